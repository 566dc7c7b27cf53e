// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 27.
// Hartley transform of 27 points, form I; two lanes to a register.
// 53 sums, 46 differences, 51 products of registers, which do the 317 steps of the graph, those with
// `scale` included; 42 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<27> {
    static constexpr int steps = 317;  // with `scale`
    static constexpr double inverseRoot = 0.19245008972987526;  // 1/sqrt(27), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.17364817766693036,  // c[2]: cos 2 pi 7/9
        0.984807753012208,  // c[3]: -sin 2 pi 7/9
        0.766044443118978,  // c[4]: cos 2 pi 8/9
        0.6427876096865394,  // c[5]: -sin 2 pi 8/9
        0.6634139481689384,  // c[6]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.1503837331804353,  // c[7]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.5566703992264194,  // c[8]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.8528685319524432,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.3420201433256687,  // c[10]: sin 2 pi 4/9
        0.9396926207859084,  // c[11]: -cos 2 pi 4/9
        0.9730448705798238,  // c[12]: cos 2 pi 26/27
        0.8936326403234123,  // c[13]: cos 2 pi 25/27
        0.23061587074244017,  // c[14]: -sin 2 pi 26/27
        0.44879918020046217,  // c[15]: -sin 2 pi 25/27
        0.5971585917027862,  // c[16]: cos 2 pi 23/27
        0.8021231927550437,  // c[17]: -sin 2 pi 23/27
        0.39607976603915684,  // c[18]: cos 2 pi 22/27
        0.918216106880274,  // c[19]: -sin 2 pi 22/27
        0.05814482891047583,  // c[20]: -cos 2 pi 20/27
        0.28680323271109026,  // c[21]: -cos 2 pi 19/27
        0.9983081582712682,  // c[22]: -sin 2 pi 20/27
        0.9579895123154889,  // c[23]: -sin 2 pi 19/27
        0.8426815769442688,  // c[24]: sin 2 pi 1/3 times cos 2 pi 26/27
        0.7739085681710371,  // c[25]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.19971920257882167,  // c[26]: sin 2 pi 1/3 times -sin 2 pi 26/27
        0.3886714912512303,  // c[27]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.5171545105027521,  // c[28]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.6946590618905499,  // c[29]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.3430151393149068,  // c[30]: sin 2 pi 1/3 times cos 2 pi 22/27
        0.7951984747223646,  // c[31]: sin 2 pi 1/3 times -sin 2 pi 22/27
        0.8645602258681744,  // c[32]: sin 2 pi 1/3 times -sin 2 pi 20/27
        0.8296432542242788,  // c[33]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.05035489893517193,  // c[34]: sin 2 pi 1/3 times -cos 2 pi 20/27
        0.24837888541530426,  // c[35]: sin 2 pi 1/3 times -cos 2 pi 19/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x26_25 = io.in(26, 25);
        // input stage
        const P t0 = x1_2 + x26_25;
        const P t1 = x1_2 - x26_25;
        const P x3_4 = io.in(3, 4);
        const P x24_23 = io.in(24, 23);
        const P t2 = x3_4 + x24_23;
        const P t3 = x3_4 - x24_23;
        const P x5_6 = io.in(5, 6);
        const P x22_21 = io.in(22, 21);
        const P t4 = x5_6 + x22_21;
        const P t5 = x5_6 - x22_21;
        const P x7_8 = io.in(7, 8);
        const P x20_19 = io.in(20, 19);
        const P t6 = x7_8 + x20_19;
        const P t7 = x7_8 - x20_19;
        const P x9_10 = io.in(9, 10);
        const P x18_17 = io.in(18, 17);
        const P t8 = x9_10 + x18_17;
        const P t9 = x9_10 - x18_17;
        const P x11_12 = io.in(11, 12);
        const P x16_15 = io.in(16, 15);
        const P t10 = x11_12 + x16_15;
        const P t11 = x11_12 - x16_15;
        const V x13 = io.in(13);
        const V x14 = io.in(14);
        const V t12 = x13 + x14;
        const V t13 = x13 - x14;
        const V t14 = part<0>(t8);
        const V x0 = io.in(0);
        // spectrum block of 3
        const V t15 = t14 + x0;
        const P t16 = shuffled<1, 3>(t10, t11);
        const P t17 = shuffled<1, 3>(t4, t5);
        const P t18 = flipped<0, 1>(t17);
        // complex block of 3
        const P t19 = t16 + t18;
        const P t20 = t16 - t18;
        const P t21 = shuffled<0, 2>(t2, t3);
        const P t22 = t19 + t21;
        const P t23 = c[0] * t19;
        const P t24 = t21 - t23;
        const P t25 = P(c[1], -c[1]) * t20;
        const P t26 = shuffled<1, 0>(t25);
        const P t27 = t24 + t26;
        const P t28 = t24 - t26;
        const P t29 = shuffled<0, 2>(t27, t28);
        // spectrum block of 9
        const P t30 = P(c[4], c[2]) * t29;
        const P t31 = shuffled<1, 3>(t27, t28);
        const P t32 = P(c[5], c[3]) * t31;
        const P t33 = t30 - t32;
        const V t34 = part<0>(t22);
        // spectrum block of 3
        const V t35 = t34 + t15;
        const P t36 = joined(x0, t15);
        const P t37 = shuffled<0, 2>(t8, t22);
        // spectrum block of 3
        const P t38 = c[0] * t37;
        const P t39 = t36 - t38;
        const P t40 = shuffled<0, 3>(t9, t22);
        const P t41 = c[1] * t40;
        const P t42 = t39 - t41;
        const P t43 = t39 + t41;
        const P t44 = shuffled<0, 2>(t42, t43);
        // spectrum block of 3
        const P t45 = t33 + t44;
        const P t46 = c[0] * t33;
        const P t47 = t44 - t46;
        const P t48 = P(c[6], c[7]) * t31;
        const P t49 = P(c[8], c[9]) * t29;
        const P t50 = t48 + t49;
        const P t51 = t47 - t50;
        const P t52 = t47 + t50;
        const P t53 = shuffled<1, 3>(t8, t9);
        const P t54 = shuffled<1, 3>(t6, t7);
        const P t55 = flipped<0, 1>(t54);
        // complex block of 3
        const P t56 = t53 + t55;
        const P t57 = t53 - t55;
        const P t58 = shuffled<0, 2>(t0, t1);
        const P t59 = t56 + t58;
        const P t60 = c[0] * t56;
        const P t61 = t58 - t60;
        const P t62 = P(c[1], -c[1]) * t57;
        const P t63 = shuffled<1, 0>(t62);
        const P t64 = t61 + t63;
        const P t65 = t61 - t63;
        const P t66 = joined(t12, t13);
        const P t67 = shuffled<0, 2>(t4, t5);
        const P t68 = flipped<0, 1>(t67);
        // complex block of 3
        const P t69 = t66 + t68;
        const P t70 = t66 - t68;
        const P t71 = shuffled<1, 3>(t2, t3);
        const P t72 = t69 + t71;
        const P t73 = c[0] * t69;
        const P t74 = t71 - t73;
        const P t75 = P(c[1], -c[1]) * t70;
        const P t76 = shuffled<1, 0>(t75);
        const P t77 = t74 + t76;
        const P t78 = t74 - t76;
        const P t79 = shuffled<0, 2>(t10, t11);
        const P t80 = shuffled<1, 3>(t0, t1);
        // complex block of 3
        const P t81 = t79 + t80;
        const P t82 = shuffled<0, 3>(t79, t80);
        const P t83 = shuffled<0, 3>(t80, t79);
        const P t84 = t82 - t83;
        const P t85 = shuffled<0, 2>(t6, t7);
        const P t86 = flipped<0, 1>(t81);
        const P t87 = t85 + t86;
        const P t88 = P(-c[0], c[0]) * t81;
        const P t89 = t88 + t85;
        const P t90 = P(c[1], -c[1]) * t84;
        const P t91 = shuffled<1, 0>(t90);
        const P t92 = t89 + t91;
        const P t93 = t89 - t91;
        // complex block of 3
        const P t94 = t72 + t87;
        const P t95 = t72 - t87;
        const P t96 = t94 + t59;
        const P t97 = c[0] * t94;
        const P t98 = t59 - t97;
        const P t99 = P(c[1], -c[1]) * t95;
        const P t100 = shuffled<1, 0>(t99);
        const P t101 = t98 + t100;
        const P t102 = t98 - t100;
        // complex block of 9
        const P t103 = c[4] * t77;
        const P t104 = shuffled<1, 0>(t77);
        const P t105 = P(-c[5], c[5]) * t104;
        const P t106 = t103 + t105;
        const P t107 = c[2] * t92;
        const P t108 = shuffled<1, 0>(t92);
        const P t109 = P(-c[3], c[3]) * t108;
        const P t110 = t107 + t109;
        // complex block of 3
        const P t111 = t106 + t110;
        const P t112 = t106 - t110;
        const P t113 = t111 + t64;
        const P t114 = c[0] * t111;
        const P t115 = t64 - t114;
        const P t116 = P(c[1], -c[1]) * t112;
        const P t117 = shuffled<1, 0>(t116);
        const P t118 = t115 + t117;
        const P t119 = t115 - t117;
        // complex block of 9
        const P t120 = c[2] * t78;
        const P t121 = shuffled<1, 0>(t78);
        const P t122 = P(-c[3], c[3]) * t121;
        const P t123 = t120 + t122;
        const P t124 = shuffled<1, 0>(t93);
        const P t125 = c[10] * t124;
        const P t126 = P(c[11], -c[11]) * t93;
        const P t127 = t125 + t126;
        const P t128 = flipped<1, 0>(t127);
        // complex block of 3
        const P t129 = t123 + t128;
        const P t130 = t123 - t128;
        const P t131 = t129 + t65;
        const P t132 = c[0] * t129;
        const P t133 = t65 - t132;
        const P t134 = P(c[1], -c[1]) * t130;
        const P t135 = shuffled<1, 0>(t134);
        const P t136 = t133 + t135;
        const P t137 = t133 - t135;
        const P t138 = shuffled<0, 2>(t113, t131);
        // spectrum block of 27
        const P t139 = P(c[12], c[13]) * t138;
        const P t140 = shuffled<1, 3>(t113, t131);
        const P t141 = P(c[14], c[15]) * t140;
        const P t142 = t139 - t141;
        const P t143 = shuffled<0, 2>(t101, t118);
        const P t144 = P(c[4], c[16]) * t143;
        const P t145 = shuffled<1, 3>(t101, t118);
        const P t146 = P(c[5], c[17]) * t145;
        const P t147 = t144 - t146;
        const P t148 = shuffled<0, 2>(t136, t102);
        const P t149 = P(c[18], c[2]) * t148;
        const P t150 = shuffled<1, 3>(t136, t102);
        const P t151 = P(c[19], c[3]) * t150;
        const P t152 = t149 - t151;
        const P t153 = shuffled<0, 2>(t119, t137);
        const P t154 = P(c[20], c[21]) * t153;
        const P t155 = shuffled<1, 3>(t119, t137);
        const P t156 = P(c[22], c[23]) * t155;
        const P t157 = t154 + t156;
        const V t158 = part<0>(t96);
        // spectrum block of 3
        const V t159 = t158 + t35;
        io.out(0, t159);
        const V t160 = c[0] * t158;
        const V t161 = t35 - t160;
        const V t162 = part<1>(t96);
        const V t163 = c[1] * t162;
        const V t164 = t161 - t163;
        io.out(18, t164);
        const V t165 = t161 + t163;
        io.out(9, t165);
        // spectrum block of 3
        const P t166 = t142 + t45;
        io.out(26, 25, t166);
        const P t167 = c[0] * t142;
        const P t168 = t45 - t167;
        const P t169 = P(c[24], c[25]) * t140;
        const P t170 = P(c[26], c[27]) * t138;
        const P t171 = t169 + t170;
        const P t172 = t168 - t171;
        io.out(17, 16, t172);
        const P t173 = t168 + t171;
        io.out(8, 7, t173);
        const P t174 = shuffled<1, 2>(t42, t51);
        // spectrum block of 3
        const P t175 = t147 + t174;
        io.out(24, 23, t175);
        const P t176 = c[0] * t147;
        const P t177 = t174 - t176;
        const P t178 = P(c[6], c[28]) * t145;
        const P t179 = P(c[8], c[29]) * t143;
        const P t180 = t178 + t179;
        const P t181 = t177 - t180;
        io.out(15, 14, t181);
        const P t182 = t177 + t180;
        io.out(6, 5, t182);
        const P t183 = shuffled<1, 3>(t51, t43);
        // spectrum block of 3
        const P t184 = t152 + t183;
        io.out(22, 21, t184);
        const P t185 = c[0] * t152;
        const P t186 = t183 - t185;
        const P t187 = P(c[30], c[7]) * t150;
        const P t188 = P(c[31], c[9]) * t148;
        const P t189 = t187 + t188;
        const P t190 = t186 - t189;
        io.out(13, 12, t190);
        const P t191 = t186 + t189;
        io.out(4, 3, t191);
        // spectrum block of 3
        const P t192 = t52 - t157;
        io.out(20, 19, t192);
        const P t193 = c[0] * t157;
        const P t194 = t193 + t52;
        const P t195 = P(c[32], c[33]) * t153;
        const P t196 = P(c[34], c[35]) * t155;
        const P t197 = t195 - t196;
        const P t198 = t194 - t197;
        io.out(11, 10, t198);
        const P t199 = t194 + t197;
        io.out(2, 1, t199);
    }
};

}  // namespace zulg
