// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 36.
// Inverse DFT to 36 real points, prime-factor 4, 9; up to four lanes to a register.
// 27 sums, 25 differences, 27 products of registers, which do the 340 steps of the graph, those with
// `scale` included; 20 shuffles, 3 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<36> {
    static constexpr int steps = 340;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.9396926207859084,  // c[3]: -cos 2 pi 5/9
        0.3420201433256687,  // c[4]: -sin 2 pi 5/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.6427876096865394,  // c[6]: sin 2 pi 1/9
        0.29619813272602386,  // c[7]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[8]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.6634139481689384,  // c[9]: sin 2 pi 1/3 times cos 2 pi 1/9
        0.5566703992264194,  // c[10]: sin 2 pi 1/3 times sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const V x0r = io.re(0);
        const V x18r = io.re(18);
        // spectrum block of 2
        const V t0 = x0r + x18r;
        const V t1 = x0r - x18r;
        const P t2 = joined(t0, t1);
        const P x9 = io.pair(9);
        // doubled bins
        const P t3 = P(c[0], -c[0]) * x9;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const Q x4_8 = io.pairs(4, 8);
        // doubled bins
        const Q t6 = c[0] * x4_8;
        const Q x14_10 = io.pairs(14, 10);
        const Q t7 = Q(c[0], -c[0], c[0], -c[0]) * x14_10;
        // complex block of 2
        const Q t8 = t6 + t7;
        const Q x13_17 = io.pairs(13, 17);
        // doubled bins
        const Q t9 = c[0] * x13_17;
        const Q x5_1 = io.pairs(5, 1);
        const Q t10 = Q(c[0], -c[0], c[0], -c[0]) * x5_1;
        // complex block of 2
        const Q t11 = t9 + t10;
        // complex block of 2
        const Q t12 = t8 + t11;
        const Q t13 = t8 - t11;
        // complex block of 2
        const Q t14 = t6 - t7;
        // complex block of 2
        const Q t15 = t9 - t10;
        const Q t16 = shuffled<1, 0, 3, 2>(t15);
        const Q t17 = flipped<1, 0, 1, 0>(t16);
        // complex block of 2
        const Q t18 = t14 + t17;
        const Q t19 = t14 - t17;
        const Q x12_16 = io.pairs(12, 16);
        // doubled bins
        const Q t20 = c[0] * x12_16;
        const Q x6_2 = io.pairs(6, 2);
        const Q t21 = Q(c[0], -c[0], c[0], -c[0]) * x6_2;
        // complex block of 2
        const Q t22 = t20 + t21;
        const Q x3_7 = io.pairs(3, 7);
        // doubled bins
        const Q t23 = c[0] * x3_7;
        const Q x15_11 = io.pairs(15, 11);
        const Q t24 = Q(c[0], -c[0], c[0], -c[0]) * x15_11;
        // complex block of 2
        const Q t25 = t23 + t24;
        // complex block of 2
        const Q t26 = t22 + t25;
        const Q t27 = t22 - t25;
        // complex block of 2
        const Q t28 = t20 - t21;
        const Q t29 = flipped<0, 1, 0, 1>(t24);
        const Q t30 = flipped<1, 0, 1, 0>(t23);
        // complex block of 2
        const Q t31 = t29 + t30;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        // complex block of 2
        const Q t33 = t28 + t32;
        const Q t34 = t28 - t32;
        const Q t35 = shuffled<1, 5, 3, 7>(t26, t33);
        const Q t36 = shuffled<1, 5, 3, 7>(t27, t34);
        const Q t37 = shuffled<2, 3, 6, 7>(t35, t36);
        const Q t38 = shuffled<1, 5, 3, 7>(t12, t18);
        const Q t39 = shuffled<1, 5, 3, 7>(t13, t19);
        const Q t40 = shuffled<2, 3, 6, 7>(t38, t39);
        // complex block of 3
        const Q t41 = t37 - t40;
        const Q t42 = shuffled<0, 1, 4, 5>(t38, t39);
        const Q t43 = c[1] * t41;
        const Q t44 = t42 - t43;
        const Q t45 = shuffled<0, 4, 2, 6>(t26, t33);
        const Q t46 = shuffled<0, 4, 2, 6>(t27, t34);
        const Q t47 = shuffled<2, 3, 6, 7>(t45, t46);
        const Q t48 = shuffled<0, 4, 2, 6>(t12, t18);
        const Q t49 = shuffled<0, 4, 2, 6>(t13, t19);
        const Q t50 = shuffled<2, 3, 6, 7>(t48, t49);
        const Q t51 = t47 + t50;
        const Q t52 = shuffled<0, 1, 4, 5>(t48, t49);
        const Q t53 = c[1] * t51;
        const Q t54 = t52 - t53;
        const Q t55 = t37 + t40;
        const Q t56 = t47 - t50;
        const Q t57 = shuffled<0, 1, 4, 5>(t45, t46);
        const Q t58 = joined(t4, t5);
        // spectrum block of 3
        const Q t59 = t57 + t58;
        // complex block of 3
        const Q t60 = t41 + t42;
        const Q t61 = t51 + t52;
        // spectrum block of 3
        const Q t62 = t61 + t59;
        io.out(0, 9, 18, 27, t62);
        const Q t63 = c[1] * t61;
        const Q t64 = t59 - t63;
        const Q t65 = c[2] * t60;
        const Q t66 = t64 - t65;
        io.out(12, 21, 30, 3, t66);
        const Q t67 = t64 + t65;
        io.out(24, 33, 6, 15, t67);
        // spectrum block of 3
        const Q t68 = c[1] * t57;
        const Q t69 = t58 - t68;
        const Q t70 = shuffled<0, 1, 4, 5>(t35, t36);
        const Q t71 = c[2] * t70;
        const Q t72 = t69 - t71;
        const Q t73 = t69 + t71;
        // complex block of 3
        const Q t74 = c[2] * t56;
        const Q t75 = t44 + t74;
        const Q t76 = c[2] * t55;
        const Q t77 = t54 - t76;
        // spectrum block of 9, multiplier 4
        const Q t78 = c[3] * t77;
        const Q t79 = c[4] * t75;
        const Q t80 = t78 + t79;
        // complex block of 3
        const Q t81 = t44 - t74;
        const Q t82 = t54 + t76;
        // spectrum block of 9, multiplier 4
        const Q t83 = c[5] * t82;
        const Q t84 = c[6] * t81;
        const Q t85 = t83 + t84;
        // spectrum block of 3
        const Q t86 = t72 - t80;
        io.out(4, 13, 22, 31, t86);
        const Q t87 = c[1] * t80;
        const Q t88 = t87 + t72;
        const Q t89 = c[7] * t77;
        const Q t90 = c[8] * t75;
        const Q t91 = t89 - t90;
        const Q t92 = t88 - t91;
        io.out(16, 25, 34, 7, t92);
        const Q t93 = t88 + t91;
        io.out(28, 1, 10, 19, t93);
        // spectrum block of 3
        const Q t94 = t85 + t73;
        io.out(8, 17, 26, 35, t94);
        const Q t95 = c[1] * t85;
        const Q t96 = t73 - t95;
        const Q t97 = c[9] * t81;
        const Q t98 = c[10] * t82;
        const Q t99 = t97 - t98;
        const Q t100 = t96 - t99;
        io.out(20, 29, 2, 11, t100);
        const Q t101 = t96 + t99;
        io.out(32, 5, 14, 23, t101);
    }
};

}  // namespace zulg
