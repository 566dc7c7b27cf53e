// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 17.
// Inverse DFT to 17 real points, Rader 16; two lanes to a register.
// 42 sums, 25 differences, 38 products of registers, which do the 201 steps of the graph, those with
// `scale` included; 39 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<17> {
    static constexpr int steps = 201;  // with `scale`
    static constexpr double inverseRoot = 0.24253562503633297;  // 1/sqrt(17), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.3826834323650898,  // c[2]: sin 2 pi 1/16
        0.7071067811865476,  // c[3]: cos 2 pi 1/8
        1.4142135623730951,  // c[4]: cos 2 pi 1/8 times 2
        0.2906530375466148,  // c[5]: P[1] of 17
        0.425612278682049,  // c[6]: -Q[1] of 17
        0.3809911760447736,  // c[7]: P[2] of 17
        0.347088927763506,  // c[8]: -Q[2] of 17
        0.5094301241979152,  // c[9]: -Q[3] of 17
        0.07814056923069293,  // c[10]: -P[3] of 17
        0.40623178445333147,  // c[11]: Q[4] of 17
        0.31717619283272513,  // c[12]: P[4] of 17
        0.5020314050995693,  // c[13]: Q[5] of 17
        0.1165738748337385,  // c[14]: P[5] of 17
        0.5139020806887744,  // c[15]: Q[6] of 17
        0.039110758925753275,  // c[16]: P[6] of 17
        0.07176933159324189,  // c[17]: Q[7] of 17
        0.5103666946839882,  // c[18]: -P[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x1 = io.pair(1);
        // doubled bins
        const P t0 = c[0] * x1;
        const P x3 = io.pair(3);
        const P t1 = c[0] * x3;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x4 = io.pair(4);
        const P t3 = c[0] * x4;
        const P x5 = io.pair(5);
        const P t4 = c[0] * x5;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 2
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x8 = io.pair(8);
        const V t8 = part<0>(x8);
        // doubled bins
        const V t9 = c[0] * t8;
        const P x7 = io.pair(7);
        const P t10 = c[0] * x7;
        const V t11 = part<0>(t10);
        const P t12 = joined(t9, t11);
        const P x2 = io.pair(2);
        const V t13 = part<0>(x2);
        const V t14 = c[0] * t13;
        const P x6 = io.pair(6);
        const P t15 = c[0] * x6;
        const V t16 = part<0>(t15);
        const P t17 = joined(t14, t16);
        // real block of 2
        const P t18 = t12 + t17;
        const P t19 = t12 - t17;
        // real block of 2
        const P t20 = t6 + t18;
        const P t21 = t6 - t18;
        const V t22 = part<0>(t20);
        const V t23 = part<1>(t20);
        // real block of 2
        const V t24 = t22 + t23;
        const V t25 = t22 - t23;
        const V t26 = part<1>(t7);
        const V t27 = part<1>(t19);
        // skew block of 4
        const V t28 = t26 - t27;
        const V t29 = t26 + t27;
        const V t30 = c[3] * t29;
        const V t31 = part<0>(t19);
        const V t32 = t30 - t31;
        const V t33 = part<0>(t7);
        const V t34 = c[3] * t28;
        const V t35 = t33 + t34;
        const V t36 = t31 + t30;
        const V t37 = t33 - t34;
        const P t38 = shuffled<1, 3>(t1, t4);
        // skew block of 8
        const P t39 = c[1] * t38;
        const P t40 = shuffled<1, 0>(t38);
        const P t41 = P(-c[2], c[2]) * t40;
        const P t42 = t39 + t41;
        const P t43 = shuffled<1, 3>(x8, x2);
        const P t44 = P(-c[4], c[4]) * t43;
        const P t45 = shuffled<1, 0>(t44);
        const P t46 = flipped<0, 1>(t45);
        const P t47 = t44 + t46;
        const P t48 = shuffled<1, 3>(t10, t15);
        const P t49 = P(-c[2], c[2]) * t48;
        const P t50 = shuffled<1, 0>(t48);
        const P t51 = c[1] * t50;
        const P t52 = t49 + t51;
        const P t53 = shuffled<1, 3>(t0, t3);
        // complex block of 2
        const P t54 = t53 + t47;
        const P t55 = t53 - t47;
        const P t56 = flipped<0, 1>(t42);
        // complex block of 2
        const P t57 = t52 + t56;
        const P t58 = flipped<1, 0>(t52);
        const P t59 = t42 + t58;
        // complex block of 2
        const P t60 = t54 + t57;
        const P t61 = t54 - t57;
        const P t62 = shuffled<1, 0>(t59);
        // complex block of 2
        const P t63 = t55 - t62;
        const P t64 = t55 + t62;
        const V x0r = io.re(0);
        // spectrum block of 17
        const V t65 = c[19] * t24;
        const V t66 = x0r - t65;
        const P t67 = shuffled<1, 0>(t60);
        const P t68 = c[5] * t67;
        const P t69 = P(c[6], -c[6]) * t60;
        const P t70 = t68 + t69;
        const P t71 = joined(t35, t36);
        const P t72 = c[7] * t71;
        const P t73 = shuffled<1, 0>(t71);
        const P t74 = P(-c[8], c[8]) * t73;
        const P t75 = t72 + t74;
        const P t76 = c[9] * t64;
        const P t77 = shuffled<1, 0>(t64);
        const P t78 = P(c[10], -c[10]) * t77;
        const P t79 = t76 + t78;
        const P t80 = shuffled<1, 0>(t21);
        const P t81 = c[11] * t80;
        const P t82 = P(c[12], -c[12]) * t21;
        const P t83 = t81 + t82;
        const P t84 = c[13] * t63;
        const P t85 = shuffled<1, 0>(t63);
        const P t86 = P(-c[14], c[14]) * t85;
        const P t87 = t84 + t86;
        const P t88 = joined(t32, t37);
        const P t89 = c[15] * t88;
        const P t90 = shuffled<1, 0>(t88);
        const P t91 = P(c[16], -c[16]) * t90;
        const P t92 = t89 + t91;
        const P t93 = c[17] * t61;
        const P t94 = shuffled<1, 0>(t61);
        const P t95 = P(-c[18], c[18]) * t94;
        const P t96 = t93 + t95;
        const V t97 = c[20] * t25;
        // spectrum block of 2
        const V t98 = t66 + t97;
        const V t99 = t66 - t97;
        const P t100 = joined(t98, t99);
        const P t101 = flipped<0, 1>(t83);
        // spectrum block of 2
        const P t102 = t100 + t101;
        const P t103 = t100 - t101;
        const P t104 = flipped<1, 0>(t70);
        // complex block of 2
        const P t105 = t104 + t96;
        const P t106 = flipped<0, 1>(t96);
        const P t107 = t70 + t106;
        // complex block of 2
        const P t108 = t87 - t79;
        const P t109 = t87 + t79;
        // complex block of 2
        const P t110 = t105 + t108;
        const P t111 = t105 - t108;
        const P t112 = shuffled<1, 0>(t109);
        // complex block of 2
        const P t113 = t107 + t112;
        const P t114 = shuffled<0, 3>(t112, t107);
        const P t115 = shuffled<0, 3>(t107, t112);
        const P t116 = t114 - t115;
        // spectrum block of 16
        const P t117 = c[1] * t113;
        const P t118 = shuffled<1, 0>(t113);
        const P t119 = P(c[2], -c[2]) * t118;
        const P t120 = t117 + t119;
        const P t121 = shuffled<1, 0>(t111);
        const P t122 = flipped<0, 1>(t121);
        const P t123 = t111 + t122;
        const P t124 = c[2] * t116;
        const P t125 = shuffled<1, 0>(t116);
        const P t126 = P(-c[1], c[1]) * t125;
        const P t127 = t124 + t126;
        const V t128 = part<0>(t75);
        const V t129 = part<0>(t92);
        // mirrored skew block of 4
        const V t130 = t128 - t129;
        const V t131 = part<1>(t92);
        const V t132 = part<1>(t75);
        const V t133 = t131 - t132;
        const V t134 = t128 + t129;
        const V t135 = c[3] * t130;
        const V t136 = c[3] * t133;
        const V t137 = t135 - t136;
        const V t138 = t132 + t131;
        const V t139 = t135 + t136;
        const P t140 = joined(t134, t137);
        // spectrum block of 2
        const P t141 = t102 + t140;
        const P t142 = t102 - t140;
        const P t143 = shuffled<0, 2>(t110, t120);
        const P t144 = flipped<0, 1>(t143);
        // spectrum block of 2
        const P t145 = t141 + t144;
        io.out(1, 6, t145);
        const P t146 = t141 - t144;
        io.out(16, 11, t146);
        const P t147 = shuffled<1, 3>(t110, t120);
        // spectrum block of 2
        const P t148 = t142 - t147;
        io.out(4, 7, t148);
        const P t149 = t142 + t147;
        io.out(13, 10, t149);
        const V t150 = flipped<1>(t139);
        const P t151 = joined(t138, t150);
        // spectrum block of 2
        const P t152 = t103 + t151;
        const P t153 = t103 - t151;
        // spectrum block of 16
        const P t154 = P(c[3], -c[3]) * t123;
        const P t155 = shuffled<1, 2>(t154, t127);
        // spectrum block of 2
        const P t156 = t152 + t155;
        io.out(2, 12, t156);
        const P t157 = t152 - t155;
        io.out(15, 5, t157);
        const P t158 = shuffled<0, 3>(t154, t127);
        // spectrum block of 2
        const P t159 = t153 - t158;
        io.out(8, 14, t159);
        const P t160 = t153 + t158;
        io.out(9, 3, t160);
        // spectrum block of 17
        const V t161 = x0r + t24;
        io.out(0, t161);
    }
};

}  // namespace zulg
