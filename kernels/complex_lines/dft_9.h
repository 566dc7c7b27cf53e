// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 9.
// Complex DFT of 9 points, twiddled, inner 3, outer 3; two lines of a stage to a register.
// 14 sums, 9 differences, 10 products of registers, which do the 138 steps of the graph, those with
// `scale` included; 19 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<9> {
    static constexpr int steps = 138;  // with `scale`
    static constexpr double inverseRoot = 0.3333333333333333;  // 1/sqrt(9), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.766044443118978,  // c[4]: cos 2 pi 1/9
        0.6427876096865394,  // c[5]: sin 2 pi 1/9
        0.9396926207859084,  // c[6]: -cos 2 pi 4/9
        0.3420201433256687,  // c[7]: sin 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x3_4 = io.pairs(3, 4);
        const Q x6_7 = io.pairs(6, 7);
        // complex block of 3
        const Q t0 = x3_4 + x6_7;
        const Q t1 = x3_4 - x6_7;
        const P x5 = io.pair(5);
        const P x8 = io.pair(8);
        // complex block of 3
        const P t2 = x5 + x8;
        const Q x0_1 = io.pairs(0, 1);
        // complex block of 3
        const Q t3 = t0 + x0_1;
        const P x2 = io.pair(2);
        // complex block of 3
        const P t4 = t2 + x2;
        const P t5 = part<1>(t3);
        const V t6 = part<0>(t5);
        const V t7 = part<0>(t4);
        // complex block of 3
        const V t8 = t6 + t7;
        const V t9 = part<1>(t5);
        const V t10 = part<1>(t4);
        const V t11 = t9 + t10;
        // complex block of 3
        const Q t12 = c[0] * t0;
        const Q t13 = x0_1 - t12;
        const Q t14 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q t18 = joined(x5, t5);
        const Q t19 = joined(x8, t4);
        // complex block of 3
        const Q t20 = t18 - t19;
        const P t21 = part<0>(t3);
        const Q t22 = joined(x2, t21);
        const P t23 = joined(t8, t11);
        const Q t24 = joined(t2, t23);
        const Q t25 = c[0] * t24;
        const Q t26 = t22 - t25;
        const Q t27 = Q(-c[1], c[1], -c[1], c[1]) * t20;
        const Q t28 = shuffled<1, 0, 3, 2>(t27);
        const Q t29 = t26 + t28;
        const P t30 = part<1>(t29);
        io.pair(3, t30);
        const Q t31 = t26 - t28;
        const P t32 = part<1>(t31);
        io.pair(6, t32);
        // complex block of 3
        const P t33 = t23 + t21;
        io.pair(0, t33);
        const Q t34 = shuffled<2, 3, 6, 7>(t16, t17);
        // complex block of 9
        const Q t35 = Q(c[4], c[4], c[2], c[2]) * t34;
        const Q t36 = shuffled<1, 0, 3, 2>(t34);
        const Q t37 = Q(c[5], -c[5], c[3], -c[3]) * t36;
        const Q t38 = t35 + t37;
        const Q t39 = shuffled<1, 0, 3, 2>(t29);
        const Q t40 = shuffled<0, 1, 4, 5>(t39, t31);
        const Q t41 = Q(c[3], -c[3], -c[6], c[6]) * t40;
        const Q t42 = shuffled<1, 0, 3, 2>(t40);
        const Q t43 = Q(c[2], c[2], c[7], c[7]) * t42;
        const Q t44 = t41 + t43;
        const Q t45 = flipped<0, 0, 0, 1>(t44);
        // complex block of 3
        const Q t46 = t38 + t45;
        const Q t47 = t38 - t45;
        const Q t48 = shuffled<0, 1, 4, 5>(t16, t17);
        const Q t49 = t46 + t48;
        io.pairs(1, 2, t49);
        const Q t50 = c[0] * t46;
        const Q t51 = t48 - t50;
        const Q t52 = Q(-c[1], c[1], -c[1], c[1]) * t47;
        const Q t53 = shuffled<1, 0, 3, 2>(t52);
        const Q t54 = t51 + t53;
        io.pairs(4, 5, t54);
        const Q t55 = t51 - t53;
        io.pairs(7, 8, t55);
    }
};

}  // namespace zulg
