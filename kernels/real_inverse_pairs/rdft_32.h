// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 32.
// Inverse DFT to 32 real points, twiddled 8, 4; two lanes to a register.
// 47 sums, 35 differences, 37 products of registers, which do the 260 steps of the graph, those with
// `scale` included; 34 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<32> {
    static constexpr int steps = 260;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.7071067811865476,  // c[1]: cos 2 pi 1/8
        0.9238795325112867,  // c[2]: cos 2 pi 30/32
        0.3826834323650898,  // c[3]: -sin 2 pi 30/32
        0.9807852804032304,  // c[4]: cos 2 pi 31/32
        0.19509032201612828,  // c[5]: -sin 2 pi 31/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
        0.5555702330196022,  // c[7]: -sin 2 pi 29/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x16r = io.re(16);
        // spectrum block of 2
        const V t0 = x0r + x16r;
        const V t1 = x0r - x16r;
        const P t2 = joined(t0, t1);
        const P x8 = io.pair(8);
        // doubled bins
        const P t3 = P(c[0], -c[0]) * x8;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const V t7 = part<0>(t6);
        const P x12 = io.pair(12);
        const P t8 = c[0] * x12;
        const V t9 = part<0>(t8);
        // mirrored skew block of 4
        const V t10 = t7 - t9;
        const V t11 = part<1>(t6);
        const V t12 = part<1>(t8);
        const V t13 = t11 + t12;
        const V t14 = t7 + t9;
        const V t15 = c[1] * t10;
        const V t16 = c[1] * t13;
        const V t17 = t15 - t16;
        const V t18 = t11 - t12;
        const V t19 = t15 + t16;
        const P t20 = joined(t14, t17);
        // spectrum block of 2
        const P t21 = t4 + t20;
        const P t22 = t4 - t20;
        const P t23 = joined(t18, t19);
        // spectrum block of 2
        const P t24 = t5 - t23;
        const P t25 = t5 + t23;
        const P x1 = io.pair(1);
        // doubled bins
        const P t26 = c[0] * x1;
        const P x15 = io.pair(15);
        const P t27 = P(c[0], -c[0]) * x15;
        // complex block of 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P x5 = io.pair(5);
        // doubled bins
        const P t30 = c[0] * x5;
        const P x11 = io.pair(11);
        const P t31 = P(c[0], -c[0]) * x11;
        // complex block of 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P x9 = io.pair(9);
        // doubled bins
        const P t34 = c[0] * x9;
        const P x7 = io.pair(7);
        const P t35 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P x13 = io.pair(13);
        // doubled bins
        const P t38 = c[0] * x13;
        const P x3 = io.pair(3);
        const P t39 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        // complex block of 2
        const P t42 = t28 + t36;
        const P t43 = t28 - t36;
        // complex block of 2
        const P t44 = t32 + t40;
        const P t45 = t32 - t40;
        // complex block of 2
        const P t46 = t42 + t44;
        const P t47 = t42 - t44;
        const P t48 = shuffled<1, 0>(t45);
        const P t49 = flipped<1, 0>(t48);
        // complex block of 2
        const P t50 = t43 + t49;
        const P t51 = t43 - t49;
        // complex block of 8
        const P t52 = c[1] * t33;
        const P t53 = shuffled<1, 0>(t52);
        const P t54 = flipped<1, 0>(t53);
        const P t55 = t52 + t54;
        const P t56 = c[1] * t41;
        const P t57 = shuffled<1, 0>(t56);
        const P t58 = flipped<1, 0>(t57);
        const P t59 = t56 + t58;
        const P t60 = shuffled<1, 0>(t37);
        const P t61 = flipped<1, 0>(t60);
        // complex block of 2
        const P t62 = t29 + t61;
        const P t63 = t29 - t61;
        const P t64 = shuffled<1, 0>(t59);
        const P t65 = flipped<1, 0>(t64);
        // complex block of 2
        const P t66 = t55 + t65;
        const P t67 = t55 - t65;
        // complex block of 2
        const P t68 = t62 + t66;
        const P t69 = t62 - t66;
        const P t70 = shuffled<1, 0>(t67);
        const P t71 = flipped<1, 0>(t70);
        // complex block of 2
        const P t72 = t63 + t71;
        const P t73 = t63 - t71;
        // spectrum block of 32
        const P t74 = c[4] * t68;
        const P t75 = shuffled<1, 0>(t68);
        const P t76 = P(-c[5], c[5]) * t75;
        const P t77 = t74 + t76;
        const P t78 = c[2] * t50;
        const P t79 = shuffled<1, 0>(t50);
        const P t80 = P(-c[3], c[3]) * t79;
        const P t81 = t78 + t80;
        const P t82 = c[6] * t72;
        const P t83 = shuffled<1, 0>(t72);
        const P t84 = P(-c[7], c[7]) * t83;
        const P t85 = t82 + t84;
        const P t86 = shuffled<1, 0>(t47);
        const P t87 = flipped<0, 1>(t86);
        const P t88 = t47 + t87;
        const P t89 = c[7] * t69;
        const P t90 = shuffled<1, 0>(t69);
        const P t91 = P(-c[6], c[6]) * t90;
        const P t92 = t89 + t91;
        const P t93 = c[3] * t51;
        const P t94 = shuffled<1, 0>(t51);
        const P t95 = P(-c[2], c[2]) * t94;
        const P t96 = t93 + t95;
        const P t97 = c[5] * t73;
        const P t98 = shuffled<1, 0>(t73);
        const P t99 = P(-c[4], c[4]) * t98;
        const P t100 = t97 + t99;
        const P x2 = io.pair(2);
        // doubled bins
        const P t101 = c[0] * x2;
        const P x14 = io.pair(14);
        const P t102 = P(c[0], -c[0]) * x14;
        // complex block of 2
        const P t103 = t101 + t102;
        const P t104 = t101 - t102;
        const P x10 = io.pair(10);
        // doubled bins
        const P t105 = c[0] * x10;
        const P x6 = io.pair(6);
        const P t106 = P(c[0], -c[0]) * x6;
        // complex block of 2
        const P t107 = t105 + t106;
        const P t108 = t105 - t106;
        // complex block of 2
        const P t109 = t103 + t107;
        const P t110 = t103 - t107;
        const P t111 = shuffled<1, 0>(t108);
        const P t112 = flipped<1, 0>(t111);
        // complex block of 2
        const P t113 = t104 + t112;
        const P t114 = t104 - t112;
        // mirrored skew block of 8
        const P t115 = c[2] * t113;
        const P t116 = shuffled<1, 0>(t113);
        const P t117 = P(-c[3], c[3]) * t116;
        const P t118 = t115 + t117;
        const P t119 = c[1] * t110;
        const P t120 = shuffled<1, 0>(t119);
        const P t121 = flipped<0, 1>(t120);
        const P t122 = t119 + t121;
        const P t123 = c[3] * t114;
        const P t124 = shuffled<1, 0>(t114);
        const P t125 = P(-c[2], c[2]) * t124;
        const P t126 = t123 + t125;
        const P t127 = shuffled<0, 2>(t109, t118);
        // spectrum block of 2
        const P t128 = t21 + t127;
        const P t129 = t21 - t127;
        const P t130 = shuffled<0, 2>(t46, t77);
        // spectrum block of 2
        const P t131 = t128 + t130;
        io.out(0, 1, t131);
        const P t132 = t128 - t130;
        io.out(16, 17, t132);
        const P t133 = shuffled<1, 3>(t46, t77);
        // spectrum block of 2
        const P t134 = t129 - t133;
        io.out(8, 9, t134);
        const P t135 = t129 + t133;
        io.out(24, 25, t135);
        const P t136 = shuffled<1, 2>(t122, t126);
        const P t137 = flipped<1, 0>(t136);
        // spectrum block of 2
        const P t138 = t24 + t137;
        const P t139 = t24 - t137;
        const P t140 = shuffled<0, 2>(t81, t85);
        // spectrum block of 2
        const P t141 = t138 + t140;
        io.out(2, 3, t141);
        const P t142 = t138 - t140;
        io.out(18, 19, t142);
        const P t143 = shuffled<1, 3>(t81, t85);
        // spectrum block of 2
        const P t144 = t139 - t143;
        io.out(10, 11, t144);
        const P t145 = t139 + t143;
        io.out(26, 27, t145);
        const P t146 = shuffled<1, 3>(t109, t118);
        // spectrum block of 2
        const P t147 = t22 - t146;
        const P t148 = t22 + t146;
        // spectrum block of 32
        const P t149 = P(c[1], -c[1]) * t88;
        const P t150 = shuffled<1, 2>(t149, t92);
        // spectrum block of 2
        const P t151 = t147 + t150;
        io.out(4, 5, t151);
        const P t152 = t147 - t150;
        io.out(20, 21, t152);
        const P t153 = shuffled<0, 3>(t149, t92);
        // spectrum block of 2
        const P t154 = t148 - t153;
        io.out(12, 13, t154);
        const P t155 = t148 + t153;
        io.out(28, 29, t155);
        const P t156 = shuffled<0, 3>(t122, t126);
        // spectrum block of 2
        const P t157 = t25 - t156;
        const P t158 = t25 + t156;
        const P t159 = shuffled<0, 2>(t96, t100);
        // spectrum block of 2
        const P t160 = t157 + t159;
        io.out(6, 7, t160);
        const P t161 = t157 - t159;
        io.out(22, 23, t161);
        const P t162 = shuffled<1, 3>(t96, t100);
        // spectrum block of 2
        const P t163 = t158 - t162;
        io.out(14, 15, t163);
        const P t164 = t158 + t162;
        io.out(30, 31, t164);
    }
};

}  // namespace zulg
