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
        const Q x0_1 = io.pairs(0, 1);
        const Q t2 = t0 + x0_1;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_1 - t3;
        const Q t5 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const P x5 = io.pair(5);
        const P x8 = io.pair(8);
        // complex block of 3
        const P t9 = x5 + x8;
        const P x2 = io.pair(2);
        const P t10 = t9 + x2;
        const P t11 = part<1>(t2);
        const V t12 = part<0>(t11);
        const V t13 = part<0>(t10);
        // complex block of 3
        const V t14 = t12 + t13;
        const V t15 = part<1>(t11);
        const V t16 = part<1>(t10);
        const V t17 = t15 + t16;
        const Q t18 = joined(x5, t11);
        const Q t19 = joined(x8, t10);
        // complex block of 3
        const Q t20 = t18 - t19;
        const P t21 = joined(t14, t17);
        const P t22 = part<0>(t2);
        // complex block of 3
        const P t23 = t21 + t22;
        io.pair(0, t23);
        const Q t24 = joined(x2, t22);
        const Q t25 = joined(t9, t21);
        // complex block of 3
        const Q t26 = c[0] * t25;
        const Q t27 = t24 - t26;
        const Q t28 = Q(-c[1], c[1], -c[1], c[1]) * t20;
        const Q t29 = shuffled<1, 0, 3, 2>(t28);
        const Q t30 = t27 + t29;
        const P t31 = part<1>(t30);
        io.pair(3, t31);
        const Q t32 = t27 - t29;
        const P t33 = part<1>(t32);
        io.pair(6, t33);
        const Q t34 = shuffled<2, 3, 6, 7>(t7, t8);
        // complex block of 9
        const Q t35 = Q(c[4], c[4], c[2], c[2]) * t34;
        const Q t36 = shuffled<1, 0, 3, 2>(t34);
        const Q t37 = Q(c[5], -c[5], c[3], -c[3]) * t36;
        const Q t38 = t35 + t37;
        const P t39 = part<0>(t30);
        const P t40 = shuffled<1, 0>(t39);
        const P t41 = part<0>(t32);
        const Q t42 = joined(t40, t41);
        const Q t43 = Q(c[3], -c[3], -c[6], c[6]) * t42;
        const Q t44 = shuffled<1, 0, 3, 2>(t42);
        const Q t45 = Q(c[2], c[2], c[7], c[7]) * t44;
        const Q t46 = t43 + t45;
        const Q t47 = flipped<0, 0, 0, 1>(t46);
        // complex block of 3
        const Q t48 = t38 + t47;
        const Q t49 = t38 - t47;
        const Q t50 = shuffled<0, 1, 4, 5>(t7, t8);
        const Q t51 = t48 + t50;
        io.pairs(1, 2, t51);
        const Q t52 = c[0] * t48;
        const Q t53 = t50 - t52;
        const Q t54 = Q(-c[1], c[1], -c[1], c[1]) * t49;
        const Q t55 = shuffled<1, 0, 3, 2>(t54);
        const Q t56 = t53 + t55;
        io.pairs(4, 5, t56);
        const Q t57 = t53 - t55;
        io.pairs(7, 8, t57);
    }
};

}  // namespace zulg
