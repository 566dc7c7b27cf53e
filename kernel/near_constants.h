// Constants of a long kernel, whose bytes of code are its time: a table near a register. What is read through it takes
// a short displacement where an address of its own would take four bytes.
#pragma once

#include <algorithm>
#include <iterator>
#include <type_traits>

#include "kernel/doubles.h"

namespace zulg {

// The same pointer, kept in a register.
ZULG_INLINE const double* inRegister(const double* table) {
    asm("" : "+r"(table));
    return table;
}

// The register points at the middle of those that are most used, so that these are within 128 bytes of it.
template <class Graph>
class NearConstants {
public:
    ZULG_INLINE double operator[](int i) const { return table[i - middle]; }

private:
    static constexpr int count = static_cast<int>(std::size(Graph::constants));
    static constexpr int middle = std::min(count / 2, 128 / static_cast<int>(sizeof(double)));

    const double* const table = inRegister(Graph::constants + middle);
};

// Near a register in kernels of so many steps and more; in shorter ones each constant has an address of its own.
template <class Graph, int longSteps>
using NearConstantsIfLong =
    std::conditional_t<(Graph::steps >= longSteps), NearConstants<Graph>, Doubles::Constants<Graph>>;

}  // namespace zulg
