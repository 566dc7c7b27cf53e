// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 27.
// Inverse DFT to 27 real points, twiddled 9, 3; two lanes to a register.
// 46 sums, 39 differences, 64 products of registers, which do the 316 steps of the graph, those with
// `scale` included; 30 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<27> {
    static constexpr int steps = 316;  // with `scale`
    static constexpr double inverseRoot = 0.19245008972987526;  // 1/sqrt(27), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        2.0,  // c[1]: 2
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.17364817766693036,  // c[3]: cos 2 pi 7/9
        0.984807753012208,  // c[4]: -sin 2 pi 7/9
        0.766044443118978,  // c[5]: cos 2 pi 8/9
        0.6427876096865394,  // c[6]: -sin 2 pi 8/9
        0.6634139481689384,  // c[7]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.1503837331804353,  // c[8]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.5566703992264194,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.8528685319524432,  // c[10]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.3420201433256687,  // c[11]: sin 2 pi 4/9
        0.9396926207859084,  // c[12]: -cos 2 pi 4/9
        1.7320508075688772,  // c[13]: sin 2 pi 1/3 times 2
        0.9730448705798238,  // c[14]: cos 2 pi 26/27
        0.8936326403234123,  // c[15]: cos 2 pi 25/27
        0.23061587074244017,  // c[16]: -sin 2 pi 26/27
        0.44879918020046217,  // c[17]: -sin 2 pi 25/27
        0.5971585917027862,  // c[18]: cos 2 pi 23/27
        0.8021231927550437,  // c[19]: -sin 2 pi 23/27
        0.39607976603915684,  // c[20]: cos 2 pi 22/27
        0.918216106880274,  // c[21]: -sin 2 pi 22/27
        0.05814482891047583,  // c[22]: -cos 2 pi 20/27
        0.28680323271109026,  // c[23]: -cos 2 pi 19/27
        0.9983081582712682,  // c[24]: -sin 2 pi 20/27
        0.9579895123154889,  // c[25]: -sin 2 pi 19/27
        0.8426815769442688,  // c[26]: sin 2 pi 1/3 times cos 2 pi 26/27
        0.7739085681710371,  // c[27]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.19971920257882167,  // c[28]: sin 2 pi 1/3 times -sin 2 pi 26/27
        0.3886714912512303,  // c[29]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.5171545105027521,  // c[30]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.6946590618905499,  // c[31]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.3430151393149068,  // c[32]: sin 2 pi 1/3 times cos 2 pi 22/27
        0.7951984747223646,  // c[33]: sin 2 pi 1/3 times -sin 2 pi 22/27
        0.8645602258681744,  // c[34]: sin 2 pi 1/3 times -sin 2 pi 20/27
        0.8296432542242788,  // c[35]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.05035489893517193,  // c[36]: sin 2 pi 1/3 times -cos 2 pi 20/27
        0.24837888541530426,  // c[37]: sin 2 pi 1/3 times -cos 2 pi 19/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x9 = io.pair(9);
        const V t0 = part<0>(x9);
        // doubled bins
        const V t1 = c[1] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3
        const V t2 = t1 + x0r;
        const P x12 = io.pair(12);
        // doubled bins
        const P t3 = c[1] * x12;
        const P x6 = io.pair(6);
        const P t4 = P(c[1], -c[1]) * x6;
        // complex block of 3
        const P t5 = t3 + t4;
        const P t6 = t3 - t4;
        const P x3 = io.pair(3);
        // doubled bins
        const P t7 = c[1] * x3;
        // complex block of 3
        const P t8 = t5 + t7;
        const P t9 = c[0] * t5;
        const P t10 = t7 - t9;
        const P t11 = P(c[2], -c[2]) * t6;
        const P t12 = shuffled<1, 0>(t11);
        const P t13 = t10 + t12;
        const P t14 = t10 - t12;
        const P t15 = shuffled<0, 2>(t13, t14);
        // spectrum block of 9
        const P t16 = P(c[5], c[3]) * t15;
        const P t17 = shuffled<1, 3>(t13, t14);
        const P t18 = P(c[6], c[4]) * t17;
        const P t19 = t16 - t18;
        const V t20 = part<0>(t8);
        // spectrum block of 3
        const V t21 = t20 + t2;
        const P t22 = joined(x0r, t2);
        const P t23 = joined(t1, t20);
        // spectrum block of 3
        const P t24 = c[0] * t23;
        const P t25 = t22 - t24;
        const P t26 = shuffled<1, 3>(x9, t8);
        const P t27 = P(c[13], c[2]) * t26;
        const P t28 = t25 - t27;
        const P t29 = t25 + t27;
        const P t30 = shuffled<0, 2>(t28, t29);
        // spectrum block of 3
        const P t31 = t19 + t30;
        const P t32 = c[0] * t19;
        const P t33 = t30 - t32;
        const P t34 = P(c[7], c[8]) * t17;
        const P t35 = P(c[9], c[10]) * t15;
        const P t36 = t34 + t35;
        const P t37 = t33 - t36;
        const P t38 = t33 + t36;
        const P x10 = io.pair(10);
        // doubled bins
        const P t39 = c[1] * x10;
        const P x8 = io.pair(8);
        const P t40 = P(c[1], -c[1]) * x8;
        // complex block of 3
        const P t41 = t39 + t40;
        const P t42 = t39 - t40;
        const P x1 = io.pair(1);
        // doubled bins
        const P t43 = c[1] * x1;
        // complex block of 3
        const P t44 = t41 + t43;
        const P t45 = c[0] * t41;
        const P t46 = t43 - t45;
        const P t47 = P(c[2], -c[2]) * t42;
        const P t48 = shuffled<1, 0>(t47);
        const P t49 = t46 + t48;
        const P t50 = t46 - t48;
        const P x13 = io.pair(13);
        // doubled bins
        const P t51 = c[1] * x13;
        const P x5 = io.pair(5);
        const P t52 = P(c[1], -c[1]) * x5;
        // complex block of 3
        const P t53 = t51 + t52;
        const P t54 = t51 - t52;
        const P x4 = io.pair(4);
        // doubled bins
        const P t55 = c[1] * x4;
        // complex block of 3
        const P t56 = t53 + t55;
        const P t57 = c[0] * t53;
        const P t58 = t55 - t57;
        const P t59 = P(c[2], -c[2]) * t54;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        const P x11 = io.pair(11);
        // doubled bins
        const P t63 = c[1] * x11;
        const P x2 = io.pair(2);
        const P t64 = c[1] * x2;
        // complex block of 3
        const P t65 = t63 + t64;
        const P t66 = shuffled<0, 3>(t63, t64);
        const P t67 = shuffled<0, 3>(t64, t63);
        const P t68 = t66 - t67;
        const P x7 = io.pair(7);
        // doubled bins
        const P t69 = c[1] * x7;
        const P t70 = flipped<0, 1>(t65);
        // complex block of 3
        const P t71 = t69 + t70;
        const P t72 = P(-c[0], c[0]) * t65;
        const P t73 = t72 + t69;
        const P t74 = P(c[2], -c[2]) * t68;
        const P t75 = shuffled<1, 0>(t74);
        const P t76 = t73 + t75;
        const P t77 = t73 - t75;
        // complex block of 3
        const P t78 = t56 + t71;
        const P t79 = t56 - t71;
        const P t80 = t78 + t44;
        const P t81 = c[0] * t78;
        const P t82 = t44 - t81;
        const P t83 = P(c[2], -c[2]) * t79;
        const P t84 = shuffled<1, 0>(t83);
        const P t85 = t82 + t84;
        const P t86 = t82 - t84;
        // complex block of 9
        const P t87 = c[5] * t61;
        const P t88 = shuffled<1, 0>(t61);
        const P t89 = P(-c[6], c[6]) * t88;
        const P t90 = t87 + t89;
        const P t91 = c[3] * t76;
        const P t92 = shuffled<1, 0>(t76);
        const P t93 = P(-c[4], c[4]) * t92;
        const P t94 = t91 + t93;
        // complex block of 3
        const P t95 = t90 + t94;
        const P t96 = t90 - t94;
        const P t97 = t95 + t49;
        const P t98 = c[0] * t95;
        const P t99 = t49 - t98;
        const P t100 = P(c[2], -c[2]) * t96;
        const P t101 = shuffled<1, 0>(t100);
        const P t102 = t99 + t101;
        const P t103 = t99 - t101;
        // complex block of 9
        const P t104 = c[3] * t62;
        const P t105 = shuffled<1, 0>(t62);
        const P t106 = P(-c[4], c[4]) * t105;
        const P t107 = t104 + t106;
        const P t108 = shuffled<1, 0>(t77);
        const P t109 = c[11] * t108;
        const P t110 = P(c[12], -c[12]) * t77;
        const P t111 = t109 + t110;
        const P t112 = flipped<1, 0>(t111);
        // complex block of 3
        const P t113 = t107 + t112;
        const P t114 = t107 - t112;
        const P t115 = t113 + t50;
        const P t116 = c[0] * t113;
        const P t117 = t50 - t116;
        const P t118 = P(c[2], -c[2]) * t114;
        const P t119 = shuffled<1, 0>(t118);
        const P t120 = t117 + t119;
        const P t121 = t117 - t119;
        const P t122 = shuffled<0, 2>(t97, t115);
        // spectrum block of 27
        const P t123 = P(c[14], c[15]) * t122;
        const P t124 = shuffled<1, 3>(t97, t115);
        const P t125 = P(c[16], c[17]) * t124;
        const P t126 = t123 - t125;
        const P t127 = shuffled<0, 2>(t85, t102);
        const P t128 = P(c[5], c[18]) * t127;
        const P t129 = shuffled<1, 3>(t85, t102);
        const P t130 = P(c[6], c[19]) * t129;
        const P t131 = t128 - t130;
        const P t132 = shuffled<0, 2>(t120, t86);
        const P t133 = P(c[20], c[3]) * t132;
        const P t134 = shuffled<1, 3>(t120, t86);
        const P t135 = P(c[21], c[4]) * t134;
        const P t136 = t133 - t135;
        const P t137 = shuffled<0, 2>(t103, t121);
        const P t138 = P(c[22], c[23]) * t137;
        const P t139 = shuffled<1, 3>(t103, t121);
        const P t140 = P(c[24], c[25]) * t139;
        const P t141 = t138 + t140;
        const V t142 = part<0>(t80);
        // spectrum block of 3
        const V t143 = t142 + t21;
        io.out(0, t143);
        const V t144 = c[0] * t142;
        const V t145 = t21 - t144;
        const V t146 = part<1>(t80);
        const V t147 = c[2] * t146;
        const V t148 = t145 - t147;
        io.out(9, t148);
        const V t149 = t145 + t147;
        io.out(18, t149);
        // spectrum block of 3
        const P t150 = t126 + t31;
        io.out(1, 2, t150);
        const P t151 = c[0] * t126;
        const P t152 = t31 - t151;
        const P t153 = P(c[26], c[27]) * t124;
        const P t154 = P(c[28], c[29]) * t122;
        const P t155 = t153 + t154;
        const P t156 = t152 - t155;
        io.out(10, 11, t156);
        const P t157 = t152 + t155;
        io.out(19, 20, t157);
        const P t158 = shuffled<1, 2>(t28, t37);
        // spectrum block of 3
        const P t159 = t131 + t158;
        io.out(3, 4, t159);
        const P t160 = c[0] * t131;
        const P t161 = t158 - t160;
        const P t162 = P(c[7], c[30]) * t129;
        const P t163 = P(c[9], c[31]) * t127;
        const P t164 = t162 + t163;
        const P t165 = t161 - t164;
        io.out(12, 13, t165);
        const P t166 = t161 + t164;
        io.out(21, 22, t166);
        const P t167 = shuffled<1, 3>(t37, t29);
        // spectrum block of 3
        const P t168 = t136 + t167;
        io.out(5, 6, t168);
        const P t169 = c[0] * t136;
        const P t170 = t167 - t169;
        const P t171 = P(c[32], c[8]) * t134;
        const P t172 = P(c[33], c[10]) * t132;
        const P t173 = t171 + t172;
        const P t174 = t170 - t173;
        io.out(14, 15, t174);
        const P t175 = t170 + t173;
        io.out(23, 24, t175);
        // spectrum block of 3
        const P t176 = t38 - t141;
        io.out(7, 8, t176);
        const P t177 = c[0] * t141;
        const P t178 = t177 + t38;
        const P t179 = P(c[34], c[35]) * t137;
        const P t180 = P(c[36], c[37]) * t139;
        const P t181 = t179 - t180;
        const P t182 = t178 - t181;
        io.out(16, 17, t182);
        const P t183 = t178 + t181;
        io.out(25, 26, t183);
    }
};

}  // namespace zulg
