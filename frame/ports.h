// Ports: how a graph reads its inputs and stores its outputs. A graph knows neither arrays nor widths; seen through
// another pair of ports it is another kernel.
//
// Value is the type in which a kernel works: double for both widths. A single is widened when it is read, and every
// output is multiplied by `scale` in double and rounded once, at the store.
#pragma once

#include "frame/platform.h"

namespace zulg {

// An element in the caller's memory: at any address, and under whatever name the caller knows it.
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

template <class Element>
struct Arrays {
    using Value = double;
    using Place = typename InMemory<Element>::Type;

    const Place* source;
    Place* destination;
    Value scale;

    ZULG_INLINE Value load(int place) const { return source[place]; }
    ZULG_INLINE void store(int place, Value value) const { destination[place] = static_cast<Element>(value * scale); }
};

// Complex to complex: real part first.
template <class Element>
struct ComplexPorts : Arrays<Element> {
    using Value = double;

    ZULG_INLINE Value re(int n) const { return this->load(2 * n); }
    ZULG_INLINE Value im(int n) const { return this->load(2 * n + 1); }
    ZULG_INLINE void re(int k, Value value) const { this->store(2 * k, value); }
    ZULG_INLINE void im(int k, Value value) const { this->store(2 * k + 1, value); }
};

// The inverse: the forward graph with the parts of every element exchanged on both sides, since the inverse transform
// of x is the forward one of the exchanged x, exchanged.
template <class Element>
struct ExchangedPorts : Arrays<Element> {
    using Value = double;

    ZULG_INLINE Value re(int n) const { return this->load(2 * n + 1); }
    ZULG_INLINE Value im(int n) const { return this->load(2 * n); }
    ZULG_INLINE void re(int k, Value value) const { this->store(2 * k + 1, value); }
    ZULG_INLINE void im(int k, Value value) const { this->store(2 * k, value); }
};

}  // namespace zulg
