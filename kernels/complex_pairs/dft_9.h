// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 9.
// Complex DFT of 9 points, twiddled, inner 3, outer 3; one complex number to a register.
// 22 sums, 18 differences, 20 products of registers, which do the 138 steps of the graph, those with
// `scale` included; 10 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<9> {
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
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x3 = io.pair(3);
        const P x6 = io.pair(6);
        // complex block of 3
        const P t0 = x3 + x6;
        const P t1 = x3 - x6;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[0] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[1], c[1]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x4 = io.pair(4);
        const P x7 = io.pair(7);
        // complex block of 3
        const P t9 = x4 + x7;
        const P t10 = x4 - x7;
        const P x1 = io.pair(1);
        const P t11 = t9 + x1;
        const P t12 = c[0] * t9;
        const P t13 = x1 - t12;
        const P t14 = P(-c[1], c[1]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x5 = io.pair(5);
        const P x8 = io.pair(8);
        // complex block of 3
        const P t18 = x5 + x8;
        const P t19 = x5 - x8;
        const P x2 = io.pair(2);
        const P t20 = t18 + x2;
        const P t21 = c[0] * t18;
        const P t22 = x2 - t21;
        const P t23 = P(-c[1], c[1]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        // complex block of 3
        const P t27 = t11 + t20;
        const P t28 = t11 - t20;
        const P t29 = t27 + t2;
        io.pair(0, t29);
        const P t30 = c[0] * t27;
        const P t31 = t2 - t30;
        const P t32 = P(-c[1], c[1]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        io.pair(3, t34);
        const P t35 = t31 - t33;
        io.pair(6, t35);
        // complex block of 9
        const P t36 = c[4] * t16;
        const P t37 = shuffled<1, 0>(t16);
        const P t38 = P(c[5], -c[5]) * t37;
        const P t39 = t36 + t38;
        const P t40 = c[2] * t25;
        const P t41 = shuffled<1, 0>(t25);
        const P t42 = P(c[3], -c[3]) * t41;
        const P t43 = t40 + t42;
        // complex block of 3
        const P t44 = t39 + t43;
        const P t45 = t39 - t43;
        const P t46 = t44 + t7;
        io.pair(1, t46);
        const P t47 = c[0] * t44;
        const P t48 = t7 - t47;
        const P t49 = P(-c[1], c[1]) * t45;
        const P t50 = shuffled<1, 0>(t49);
        const P t51 = t48 + t50;
        io.pair(4, t51);
        const P t52 = t48 - t50;
        io.pair(7, t52);
        // complex block of 9
        const P t53 = c[2] * t17;
        const P t54 = shuffled<1, 0>(t17);
        const P t55 = P(c[3], -c[3]) * t54;
        const P t56 = t53 + t55;
        const P t57 = P(-c[6], c[6]) * t26;
        const P t58 = shuffled<1, 0>(t26);
        const P t59 = c[7] * t58;
        const P t60 = t57 + t59;
        const P t61 = flipped<0, 1>(t60);
        // complex block of 3
        const P t62 = t56 + t61;
        const P t63 = t56 - t61;
        const P t64 = t62 + t8;
        io.pair(2, t64);
        const P t65 = c[0] * t62;
        const P t66 = t8 - t65;
        const P t67 = P(-c[1], c[1]) * t63;
        const P t68 = shuffled<1, 0>(t67);
        const P t69 = t66 + t68;
        io.pair(5, t69);
        const P t70 = t66 - t68;
        io.pair(8, t70);
    }
};

}  // namespace zulg
