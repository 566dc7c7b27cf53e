// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 12.
// Complex DFT of 12 points, prime-factor, order 4, 3; two lines of a stage to a register.
// 12 sums, 12 differences, 4 products of registers, which do the 136 steps of the graph, those with
// `scale` included; 10 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<12> {
    static constexpr int steps = 136;  // with `scale`
    static constexpr double inverseRoot = 0.2886751345948129;  // 1/sqrt(12), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_4 = io.pairs(0, 4);
        const Q x6_10 = io.pairs(6, 10);
        // complex block of 2
        const Q t0 = x0_4 + x6_10;
        const Q t1 = x0_4 - x6_10;
        const Q x3_7 = io.pairs(3, 7);
        const Q x9_1 = io.pairs(9, 1);
        // complex block of 2
        const Q t2 = x3_7 + x9_1;
        const Q t3 = x3_7 - x9_1;
        // complex block of 2
        const Q t4 = t0 + t2;
        const Q t5 = t0 - t2;
        const Q t6 = shuffled<1, 0, 3, 2>(t3);
        const Q t7 = flipped<1, 0, 1, 0>(t6);
        // complex block of 2
        const Q t8 = t1 + t7;
        const Q t9 = t1 - t7;
        const Q x8_11 = io.pairs(8, 11);
        const Q x2_5 = io.pairs(2, 5);
        // complex block of 2
        const Q t10 = x8_11 + x2_5;
        const Q t11 = x8_11 - x2_5;
        const Q t12 = shuffled<0, 1, 4, 5>(t10, t11);
        const Q t13 = shuffled<2, 3, 6, 7>(t10, t11);
        const Q t14 = shuffled<0, 1, 3, 2>(t13);
        const Q t15 = flipped<0, 0, 1, 0>(t14);
        // complex block of 2
        const Q t16 = t12 + t15;
        const Q t17 = t12 - t15;
        const Q t18 = shuffled<2, 3, 6, 7>(t4, t8);
        // complex block of 3
        const Q t19 = t18 + t16;
        const Q t20 = t18 - t16;
        const Q t21 = shuffled<0, 1, 4, 5>(t4, t8);
        const Q t22 = t19 + t21;
        io.pairs(0, 3, t22);
        const Q t23 = c[0] * t19;
        const Q t24 = t21 - t23;
        const Q t25 = Q(-c[1], c[1], -c[1], c[1]) * t20;
        const Q t26 = shuffled<1, 0, 3, 2>(t25);
        const Q t27 = t24 + t26;
        io.pairs(4, 7, t27);
        const Q t28 = t24 - t26;
        io.pairs(8, 11, t28);
        const Q t29 = shuffled<2, 3, 6, 7>(t5, t9);
        // complex block of 3
        const Q t30 = t29 + t17;
        const Q t31 = t29 - t17;
        const Q t32 = shuffled<0, 1, 4, 5>(t5, t9);
        const Q t33 = t30 + t32;
        io.pairs(6, 9, t33);
        const Q t34 = c[0] * t30;
        const Q t35 = t32 - t34;
        const Q t36 = Q(-c[1], c[1], -c[1], c[1]) * t31;
        const Q t37 = shuffled<1, 0, 3, 2>(t36);
        const Q t38 = t35 + t37;
        io.pairs(10, 1, t38);
        const Q t39 = t35 - t37;
        io.pairs(2, 5, t39);
    }
};

}  // namespace zulg
