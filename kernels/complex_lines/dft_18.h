// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 18.
// Complex DFT of 18 points, prime-factor, order 2, 9; two lines of a stage to a register.
// 28 sums, 22 differences, 20 products of registers, which do the 312 steps of the graph, those with
// `scale` included; 28 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<18> {
    static constexpr int steps = 312;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 4/9
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.17364817766693036,  // c[4]: cos 2 pi 2/9
        0.984807753012208,  // c[5]: sin 2 pi 2/9
        0.766044443118978,  // c[6]: cos 2 pi 8/9
        0.6427876096865394,  // c[7]: -sin 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_10 = io.pairs(0, 10);
        const Q x9_1 = io.pairs(9, 1);
        // complex block of 2
        const Q t0 = x0_10 + x9_1;
        const Q t1 = x0_10 - x9_1;
        const Q x6_16 = io.pairs(6, 16);
        const Q x15_7 = io.pairs(15, 7);
        // complex block of 2
        const Q t2 = x6_16 + x15_7;
        const Q t3 = x6_16 - x15_7;
        const Q t4 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t5 = shuffled<2, 3, 6, 7>(t2, t3);
        // complex block of 3, multiplier 2
        const Q t6 = t4 + t5;
        const Q t7 = t4 - t5;
        const Q x2_12 = io.pairs(2, 12);
        const Q x11_3 = io.pairs(11, 3);
        // complex block of 2
        const Q t8 = x2_12 + x11_3;
        const Q t9 = x2_12 - x11_3;
        const Q x4_14 = io.pairs(4, 14);
        const Q x13_5 = io.pairs(13, 5);
        // complex block of 2
        const Q t10 = x4_14 + x13_5;
        const Q t11 = x4_14 - x13_5;
        const P x8 = io.pair(8);
        const P x17 = io.pair(17);
        // complex block of 2
        const P t12 = x8 + x17;
        const P t13 = x8 - x17;
        const Q t14 = joined(t12, t13);
        const Q t15 = shuffled<2, 3, 6, 7>(t10, t11);
        // complex block of 3, multiplier 2
        const Q t16 = t14 + t15;
        const Q t17 = t14 - t15;
        const Q t18 = shuffled<0, 1, 4, 5>(t2, t3);
        const Q t19 = shuffled<2, 3, 6, 7>(t8, t9);
        // complex block of 3, multiplier 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        const Q t22 = shuffled<0, 1, 4, 5>(t8, t9);
        // complex block of 3, multiplier 2
        const Q t23 = t16 + t22;
        const Q t24 = c[0] * t16;
        const Q t25 = t22 - t24;
        const Q t26 = Q(-c[1], c[1], -c[1], c[1]) * t17;
        const Q t27 = shuffled<1, 0, 3, 2>(t26);
        const Q t28 = t25 + t27;
        const Q t29 = t25 - t27;
        const Q t30 = shuffled<0, 1, 4, 5>(t10, t11);
        // complex block of 3, multiplier 2
        const Q t31 = t6 + t30;
        const Q t32 = c[0] * t6;
        const Q t33 = t30 - t32;
        const Q t34 = Q(-c[1], c[1], -c[1], c[1]) * t7;
        const Q t35 = shuffled<1, 0, 3, 2>(t34);
        const Q t36 = t33 + t35;
        const Q t37 = t33 - t35;
        const Q t38 = shuffled<0, 1, 4, 5>(t0, t1);
        // complex block of 3, multiplier 2
        const Q t39 = t20 + t38;
        // complex block of 3, multiplier 2
        const Q t40 = t23 + t31;
        const Q t41 = t23 - t31;
        const Q t42 = t40 + t39;
        const Q t43 = c[0] * t40;
        const Q t44 = t39 - t43;
        const Q t45 = Q(-c[1], c[1], -c[1], c[1]) * t41;
        const Q t46 = shuffled<1, 0, 3, 2>(t45);
        const Q t47 = t44 + t46;
        const Q t48 = t44 - t46;
        // complex block of 3, multiplier 2
        const Q t49 = c[0] * t20;
        const Q t50 = t38 - t49;
        const Q t51 = Q(-c[1], c[1], -c[1], c[1]) * t21;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = t50 + t52;
        const Q t54 = t50 - t52;
        // complex block of 9, multiplier 2
        const Q t55 = c[4] * t29;
        const Q t56 = shuffled<1, 0, 3, 2>(t29);
        const Q t57 = Q(c[5], -c[5], c[5], -c[5]) * t56;
        const Q t58 = t55 + t57;
        const Q t59 = Q(-c[2], c[2], -c[2], c[2]) * t37;
        const Q t60 = shuffled<1, 0, 3, 2>(t37);
        const Q t61 = c[3] * t60;
        const Q t62 = t59 + t61;
        const Q t63 = flipped<0, 1, 0, 1>(t62);
        // complex block of 3, multiplier 2
        const Q t64 = t58 + t63;
        const Q t65 = t58 - t63;
        // complex block of 9, multiplier 2
        const Q t66 = Q(-c[2], c[2], -c[2], c[2]) * t28;
        const Q t67 = shuffled<1, 0, 3, 2>(t28);
        const Q t68 = c[3] * t67;
        const Q t69 = t66 + t68;
        const Q t70 = c[6] * t36;
        const Q t71 = shuffled<1, 0, 3, 2>(t36);
        const Q t72 = Q(-c[7], c[7], -c[7], c[7]) * t71;
        const Q t73 = t70 + t72;
        const Q t74 = flipped<0, 1, 0, 1>(t69);
        // complex block of 3, multiplier 2
        const Q t75 = t73 + t74;
        const Q t76 = flipped<1, 0, 1, 0>(t73);
        const Q t77 = t69 + t76;
        // complex block of 3, multiplier 2
        const Q t78 = t64 + t54;
        const Q t79 = shuffled<0, 1, 6, 7>(t78, t47);
        io.pairs(2, 3, t79);
        const Q t80 = c[0] * t64;
        const Q t81 = t54 - t80;
        const Q t82 = Q(-c[1], c[1], -c[1], c[1]) * t65;
        const Q t83 = shuffled<1, 0, 3, 2>(t82);
        const Q t84 = t81 + t83;
        const Q t85 = shuffled<0, 1, 6, 7>(t84, t48);
        io.pairs(14, 15, t85);
        const Q t86 = t81 - t83;
        const Q t87 = shuffled<0, 1, 6, 7>(t86, t42);
        io.pairs(8, 9, t87);
        // complex block of 3, multiplier 2
        const Q t88 = t75 + t53;
        const Q t89 = shuffled<0, 1, 6, 7>(t88, t84);
        io.pairs(4, 5, t89);
        const Q t90 = shuffled<0, 1, 6, 7>(t47, t88);
        io.pairs(12, 13, t90);
        const Q t91 = c[0] * t75;
        const Q t92 = t53 - t91;
        const Q t93 = c[1] * t77;
        const Q t94 = shuffled<1, 0, 3, 2>(t93);
        const Q t95 = t92 - t94;
        const Q t96 = shuffled<0, 1, 6, 7>(t48, t95);
        io.pairs(6, 7, t96);
        const Q t97 = shuffled<0, 1, 6, 7>(t95, t86);
        io.pairs(16, 17, t97);
        const Q t98 = t92 + t94;
        const Q t99 = shuffled<0, 1, 6, 7>(t42, t98);
        io.pairs(0, 1, t99);
        const Q t100 = shuffled<0, 1, 6, 7>(t98, t78);
        io.pairs(10, 11, t100);
    }
};

}  // namespace zulg
