// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 4.
// Complex DFT of 4 points, twiddled, inner 2, outer 2; one complex number to a register.
// 4 sums, 4 differences, 0 products of registers, which do the 24 steps of the graph, those with
// `scale` included; 1 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<4> {
    static constexpr int steps = 24;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const P x0 = io.pair(0);
        const P x2 = io.pair(2);
        // complex block of 2
        const P t0 = x0 + x2;
        const P t1 = x0 - x2;
        const P x1 = io.pair(1);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t2 = x1 + x3;
        const P t3 = x1 - x3;
        // complex block of 2
        const P t4 = t0 + t2;
        io.pair(0, t4);
        const P t5 = t0 - t2;
        io.pair(2, t5);
        const P t6 = shuffled<1, 0>(t3);
        const P t7 = flipped<0, 1>(t6);
        // complex block of 2
        const P t8 = t1 + t7;
        io.pair(1, t8);
        const P t9 = t1 - t7;
        io.pair(3, t9);
    }
};

}  // namespace zulg
