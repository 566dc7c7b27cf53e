// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 2.
// Complex DFT of 2 points, base; one complex number to a register.
// 1 sums, 1 differences, 0 products of registers, which do the 8 steps of the graph, those with
// `scale` included; 0 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<2> {
    static constexpr int steps = 8;  // with `scale`
    static constexpr double inverseRoot = 0.7071067811865475;  // 1/sqrt(2), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const P x0 = io.pair(0);
        const P x1 = io.pair(1);
        // complex block of 2
        const P t0 = x0 + x1;
        io.pair(0, t0);
        const P t1 = x0 - x1;
        io.pair(1, t1);
    }
};

}  // namespace zulg
