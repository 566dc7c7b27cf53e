// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 28.
// Inverse DFT to 28 real points, prime-factor 4, 7; two lanes to a register.
// 40 sums, 36 differences, 49 products of registers, which do the 276 steps of the graph, those with
// `scale` included; 16 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<28> {
    static constexpr int steps = 276;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 1/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 3/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x14r = io.re(14);
        // spectrum block of 2
        const V t0 = x0r + x14r;
        const V t1 = x0r - x14r;
        const P t2 = joined(t0, t1);
        const P x7 = io.pair(7);
        // doubled bins
        const P t3 = c[0] * x7;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x10 = io.pair(10);
        const P t7 = P(c[0], -c[0]) * x10;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x11 = io.pair(11);
        // doubled bins
        const P t10 = c[0] * x11;
        const P x3 = io.pair(3);
        const P t11 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        // complex block of 2
        const P t14 = t8 + t12;
        const P t15 = t8 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<0, 1>(t16);
        // complex block of 2
        const P t18 = t9 + t17;
        const P t19 = t9 - t17;
        const P x8 = io.pair(8);
        // doubled bins
        const P t20 = c[0] * x8;
        const P x6 = io.pair(6);
        const P t21 = P(c[0], -c[0]) * x6;
        // complex block of 2
        const P t22 = t20 + t21;
        const P t23 = t20 - t21;
        const P x1 = io.pair(1);
        // doubled bins
        const P t24 = c[0] * x1;
        const P x13 = io.pair(13);
        const P t25 = P(c[0], -c[0]) * x13;
        // complex block of 2
        const P t26 = t24 + t25;
        const P t27 = flipped<0, 1>(t25);
        const P t28 = flipped<1, 0>(t24);
        const P t29 = t27 + t28;
        // complex block of 2
        const P t30 = t22 + t26;
        const P t31 = t22 - t26;
        const P t32 = shuffled<1, 0>(t29);
        // complex block of 2
        const P t33 = t23 - t32;
        const P t34 = t23 + t32;
        const P x12 = io.pair(12);
        // doubled bins
        const P t35 = c[0] * x12;
        const P x2 = io.pair(2);
        const P t36 = P(c[0], -c[0]) * x2;
        // complex block of 2
        const P t37 = t35 + t36;
        const P t38 = t35 - t36;
        const P x5 = io.pair(5);
        // doubled bins
        const P t39 = c[0] * x5;
        const P x9 = io.pair(9);
        const P t40 = P(c[0], -c[0]) * x9;
        // complex block of 2
        const P t41 = t39 + t40;
        const P t42 = flipped<0, 1>(t40);
        const P t43 = flipped<1, 0>(t39);
        const P t44 = t42 + t43;
        // complex block of 2
        const P t45 = t37 + t41;
        const P t46 = t37 - t41;
        const P t47 = shuffled<1, 0>(t44);
        // complex block of 2
        const P t48 = t38 - t47;
        const P t49 = t38 + t47;
        const P t50 = shuffled<0, 2>(t14, t18);
        const P t51 = shuffled<0, 2>(t30, t33);
        // spectrum block of 7, multiplier 4
        const P t52 = t50 + t51;
        const P t53 = shuffled<0, 2>(t45, t48);
        const P t54 = t52 + t53;
        const P t55 = t54 + t4;
        io.out(0, 7, t55);
        const P t56 = c[1] * t50;
        const P t57 = c[2] * t51;
        const P t58 = t56 - t57;
        const P t59 = c[3] * t53;
        const P t60 = t58 - t59;
        const P t61 = t60 + t4;
        const P t62 = shuffled<1, 3>(t14, t18);
        const P t63 = c[4] * t62;
        const P t64 = shuffled<1, 3>(t30, t33);
        const P t65 = c[5] * t64;
        const P t66 = t63 + t65;
        const P t67 = shuffled<1, 3>(t45, t48);
        const P t68 = c[6] * t67;
        const P t69 = t66 + t68;
        const P t70 = t61 - t69;
        io.out(8, 15, t70);
        const P t71 = t61 + t69;
        io.out(20, 27, t71);
        const P t72 = c[2] * t50;
        const P t73 = t4 - t72;
        const P t74 = c[3] * t51;
        const P t75 = t73 - t74;
        const P t76 = c[1] * t53;
        const P t77 = t75 + t76;
        const P t78 = c[5] * t62;
        const P t79 = c[6] * t64;
        const P t80 = t78 - t79;
        const P t81 = c[4] * t67;
        const P t82 = t80 - t81;
        const P t83 = t77 - t82;
        io.out(16, 23, t83);
        const P t84 = t77 + t82;
        io.out(12, 19, t84);
        const P t85 = c[3] * t50;
        const P t86 = t4 - t85;
        const P t87 = c[1] * t51;
        const P t88 = t86 + t87;
        const P t89 = c[2] * t53;
        const P t90 = t88 - t89;
        const P t91 = c[6] * t62;
        const P t92 = c[4] * t64;
        const P t93 = t91 - t92;
        const P t94 = c[5] * t67;
        const P t95 = t93 + t94;
        const P t96 = t90 - t95;
        io.out(24, 3, t96);
        const P t97 = t90 + t95;
        io.out(4, 11, t97);
        const P t98 = shuffled<0, 2>(t15, t19);
        const P t99 = shuffled<0, 2>(t31, t34);
        // spectrum block of 7, multiplier 4
        const P t100 = t98 + t99;
        const P t101 = shuffled<0, 2>(t46, t49);
        const P t102 = t100 + t101;
        const P t103 = t102 + t5;
        io.out(14, 21, t103);
        const P t104 = c[1] * t98;
        const P t105 = c[2] * t99;
        const P t106 = t104 - t105;
        const P t107 = c[3] * t101;
        const P t108 = t106 - t107;
        const P t109 = t108 + t5;
        const P t110 = shuffled<1, 3>(t15, t19);
        const P t111 = c[4] * t110;
        const P t112 = shuffled<1, 3>(t31, t34);
        const P t113 = c[5] * t112;
        const P t114 = t111 + t113;
        const P t115 = shuffled<1, 3>(t46, t49);
        const P t116 = c[6] * t115;
        const P t117 = t114 + t116;
        const P t118 = t109 - t117;
        io.out(22, 1, t118);
        const P t119 = t109 + t117;
        io.out(6, 13, t119);
        const P t120 = c[2] * t98;
        const P t121 = t5 - t120;
        const P t122 = c[3] * t99;
        const P t123 = t121 - t122;
        const P t124 = c[1] * t101;
        const P t125 = t123 + t124;
        const P t126 = c[5] * t110;
        const P t127 = c[6] * t112;
        const P t128 = t126 - t127;
        const P t129 = c[4] * t115;
        const P t130 = t128 - t129;
        const P t131 = t125 - t130;
        io.out(2, 9, t131);
        const P t132 = t125 + t130;
        io.out(26, 5, t132);
        const P t133 = c[3] * t98;
        const P t134 = t5 - t133;
        const P t135 = c[1] * t99;
        const P t136 = t134 + t135;
        const P t137 = c[2] * t101;
        const P t138 = t136 - t137;
        const P t139 = c[6] * t110;
        const P t140 = c[4] * t112;
        const P t141 = t139 - t140;
        const P t142 = c[5] * t115;
        const P t143 = t141 + t142;
        const P t144 = t138 - t143;
        io.out(10, 17, t144);
        const P t145 = t138 + t143;
        io.out(18, 25, t145);
    }
};

}  // namespace zulg
