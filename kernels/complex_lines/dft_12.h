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
        const Q x8_11 = io.pairs(8, 11);
        const Q x2_5 = io.pairs(2, 5);
        // complex block of 2
        const Q t4 = x8_11 + x2_5;
        const Q t5 = x8_11 - x2_5;
        // complex block of 2
        const Q t6 = t0 + t2;
        const Q t7 = shuffled<1, 0, 3, 2>(t3);
        const Q t8 = flipped<1, 0, 1, 0>(t7);
        // complex block of 2
        const Q t9 = t1 + t8;
        const Q t10 = shuffled<0, 1, 4, 5>(t4, t5);
        const Q t11 = shuffled<1, 0, 3, 2>(t5);
        const Q t12 = shuffled<2, 3, 6, 7>(t4, t11);
        const Q t13 = flipped<0, 0, 1, 0>(t12);
        // complex block of 2
        const Q t14 = t10 + t13;
        const Q t15 = shuffled<2, 3, 6, 7>(t6, t9);
        // complex block of 3
        const Q t16 = t15 + t14;
        // complex block of 2
        const Q t17 = t0 - t2;
        // complex block of 2
        const Q t18 = t1 - t8;
        // complex block of 2
        const Q t19 = t10 - t13;
        const Q t20 = shuffled<2, 3, 6, 7>(t17, t18);
        // complex block of 3
        const Q t21 = t20 + t19;
        // complex block of 3
        const Q t22 = t15 - t14;
        const Q t23 = shuffled<0, 1, 4, 5>(t6, t9);
        const Q t24 = c[0] * t16;
        const Q t25 = t23 - t24;
        const Q t26 = Q(-c[1], c[1], -c[1], c[1]) * t22;
        const Q t27 = shuffled<1, 0, 3, 2>(t26);
        const Q t28 = t25 + t27;
        io.pairs(4, 7, t28);
        const Q t29 = t25 - t27;
        io.pairs(8, 11, t29);
        const Q t30 = t16 + t23;
        io.pairs(0, 3, t30);
        // complex block of 3
        const Q t31 = t20 - t19;
        const Q t32 = shuffled<0, 1, 4, 5>(t17, t18);
        const Q t33 = c[0] * t21;
        const Q t34 = t32 - t33;
        const Q t35 = Q(-c[1], c[1], -c[1], c[1]) * t31;
        const Q t36 = shuffled<1, 0, 3, 2>(t35);
        const Q t37 = t34 + t36;
        io.pairs(10, 1, t37);
        const Q t38 = t34 - t36;
        io.pairs(2, 5, t38);
        const Q t39 = t21 + t32;
        io.pairs(6, 9, t39);
    }
};

}  // namespace zulg
