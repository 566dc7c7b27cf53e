// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 4.
// Complex DFT of 4 points, twiddled, inner 2, outer 2; two lines of a stage to a register.
// 2 sums, 2 differences, 0 products of registers, which do the 24 steps of the graph, those with
// `scale` included; 3 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<4> {
    static constexpr int steps = 24;  // with `scale`
    static constexpr double inverseRoot = 0.5;  // 1/sqrt(4), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const Q x0_1 = io.pairs(0, 1);
        const Q x2_3 = io.pairs(2, 3);
        // complex block of 2
        const Q t0 = x0_1 + x2_3;
        const Q t1 = x0_1 - x2_3;
        const Q t2 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t3 = shuffled<1, 0, 3, 2>(t1);
        const Q t4 = shuffled<2, 3, 6, 7>(t0, t3);
        const Q t5 = flipped<0, 0, 0, 1>(t4);
        // complex block of 2
        const Q t6 = t2 + t5;
        io.pairs(0, 1, t6);
        const Q t7 = t2 - t5;
        io.pairs(2, 3, t7);
    }
};

}  // namespace zulg
