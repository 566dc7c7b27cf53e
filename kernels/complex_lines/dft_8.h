// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 8.
// Complex DFT of 8 points, twiddled, inner 2, outer 4; two lines of a stage to a register.
// 7 sums, 6 differences, 1 products of registers, which do the 72 steps of the graph, those with
// `scale` included; 9 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<8> {
    static constexpr int steps = 72;  // with `scale`
    static constexpr double inverseRoot = 0.35355339059327373;  // 1/sqrt(8), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_1 = io.pairs(0, 1);
        const Q x4_5 = io.pairs(4, 5);
        // complex block of 2
        const Q t0 = x0_1 - x4_5;
        const Q x2_3 = io.pairs(2, 3);
        const Q x6_7 = io.pairs(6, 7);
        // complex block of 2
        const Q t1 = x2_3 - x6_7;
        // complex block of 2
        const Q t2 = x0_1 + x4_5;
        // complex block of 2
        const Q t3 = x2_3 + x6_7;
        const Q t4 = shuffled<2, 3, 6, 7>(t1, t0);
        // complex block of 8
        const Q t5 = c[0] * t4;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = flipped<0, 1, 0, 1>(t6);
        const Q t8 = t5 + t7;
        const Q t9 = shuffled<2, 3, 6, 7>(t2, t8);
        const Q t10 = shuffled<1, 0, 3, 2>(t8);
        const Q t11 = shuffled<2, 3, 4, 5>(t3, t10);
        const Q t12 = flipped<0, 0, 0, 1>(t11);
        // complex block of 2
        const Q t13 = t9 + t12;
        const Q t14 = t9 - t12;
        const Q t15 = shuffled<0, 1, 4, 5>(t2, t0);
        const Q t16 = shuffled<1, 0, 3, 2>(t1);
        const Q t17 = shuffled<0, 1, 4, 5>(t3, t16);
        const Q t18 = flipped<0, 0, 0, 1>(t17);
        // complex block of 2
        const Q t19 = t15 + t18;
        const Q t20 = t15 - t18;
        // complex block of 2
        const Q t21 = t19 + t13;
        io.pairs(0, 1, t21);
        const Q t22 = t19 - t13;
        io.pairs(4, 5, t22);
        const Q t23 = shuffled<1, 0, 3, 2>(t14);
        const Q t24 = flipped<0, 1, 0, 1>(t23);
        // complex block of 2
        const Q t25 = t20 + t24;
        io.pairs(2, 3, t25);
        const Q t26 = t20 - t24;
        io.pairs(6, 7, t26);
    }
};

}  // namespace zulg
