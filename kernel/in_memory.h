// Elements as they are in the caller's memory.
#pragma once

namespace zulg {

// An element at any address, and under whatever name the caller knows it.
template <class Element>
struct InMemory;
template <>
struct InMemory<float> {
    typedef float Type __attribute__((aligned(1), may_alias));
};
template <>
struct InMemory<double> {
    typedef double Type __attribute__((aligned(1), may_alias));
};

}  // namespace zulg
