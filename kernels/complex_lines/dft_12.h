// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 12.
// Complex DFT of 12 points, prime-factor, order 4, 3; two lines of a stage to a register.
// 12 sums, 12 differences, 4 products of registers, which do the 136 steps of the graph, those with
// `scale` included; 18 shuffles, 2 changes of sign.
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
        const Q t7 = t0 - t2;
        const Q t8 = shuffled<1, 0, 3, 2>(t3);
        const Q t9 = flipped<1, 0, 1, 0>(t8);
        // complex block of 2
        const Q t10 = t1 + t9;
        const Q t11 = t1 - t9;
        const Q t12 = shuffled<0, 1, 4, 5>(t4, t5);
        const Q t13 = shuffled<1, 0, 3, 2>(t5);
        const Q t14 = shuffled<2, 3, 6, 7>(t4, t13);
        const Q t15 = flipped<0, 0, 1, 0>(t14);
        // complex block of 2
        const Q t16 = t12 + t15;
        const Q t17 = t12 - t15;
        const Q t18 = shuffled<2, 3, 6, 7>(t7, t10);
        const Q t19 = shuffled<0, 1, 6, 7>(t17, t16);
        // complex block of 3
        const Q t20 = t18 + t19;
        const Q t21 = shuffled<2, 3, 6, 7>(t6, t11);
        const Q t22 = shuffled<0, 1, 6, 7>(t16, t17);
        // complex block of 3
        const Q t23 = t21 + t22;
        // complex block of 3
        const Q t24 = t18 - t19;
        const Q t25 = shuffled<0, 1, 4, 5>(t7, t10);
        const Q t26 = c[0] * t20;
        const Q t27 = t25 - t26;
        const Q t28 = Q(-c[1], c[1], -c[1], c[1]) * t24;
        const Q t29 = shuffled<1, 0, 3, 2>(t28);
        const Q t30 = t27 + t29;
        const Q t31 = t27 - t29;
        const Q t32 = shuffled<0, 1, 6, 7>(t30, t31);
        io.pairs(10, 11, t32);
        const Q t33 = t20 + t25;
        const Q t34 = shuffled<0, 1, 6, 7>(t31, t33);
        io.pairs(2, 3, t34);
        const Q t35 = shuffled<0, 1, 6, 7>(t33, t30);
        io.pairs(6, 7, t35);
        // complex block of 3
        const Q t36 = t21 - t22;
        const Q t37 = shuffled<0, 1, 4, 5>(t6, t11);
        const Q t38 = c[0] * t23;
        const Q t39 = t37 - t38;
        const Q t40 = Q(-c[1], c[1], -c[1], c[1]) * t36;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = t39 + t41;
        const Q t43 = t39 - t41;
        const Q t44 = shuffled<0, 1, 6, 7>(t42, t43);
        io.pairs(4, 5, t44);
        const Q t45 = t23 + t37;
        const Q t46 = shuffled<0, 1, 6, 7>(t45, t42);
        io.pairs(0, 1, t46);
        const Q t47 = shuffled<0, 1, 6, 7>(t43, t45);
        io.pairs(8, 9, t47);
    }
};

}  // namespace zulg
