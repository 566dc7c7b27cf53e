// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 25.
// Inverse DFT to 25 real points, twiddled 5, 5; two lanes to a register.
// 54 sums, 24 differences, 68 products of registers, which do the 313 steps of the graph, those with
// `scale` included; 34 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<25> {
    static constexpr int steps = 313;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.5358267949789967,  // c[5]: cos 2 pi 21/25
        0.8443279255020151,  // c[6]: -sin 2 pi 21/25
        0.8763066800438636,  // c[7]: cos 2 pi 23/25
        0.48175367410171527,  // c[8]: -sin 2 pi 23/25
        0.9048270524660196,  // c[9]: -sin 2 pi 17/25
        0.42577929156507266,  // c[10]: -cos 2 pi 17/25
        0.9685831611286311,  // c[11]: cos 2 pi 24/25
        0.2486898871648548,  // c[12]: -sin 2 pi 24/25
        0.7289686274214116,  // c[13]: cos 2 pi 22/25
        0.6845471059286887,  // c[14]: -sin 2 pi 22/25
        0.06279051952931337,  // c[15]: cos 2 pi 19/25
        0.9980267284282716,  // c[16]: -sin 2 pi 19/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x6 = io.pair(6);
        // doubled bins
        const P t0 = c[0] * x6;
        const P x4 = io.pair(4);
        const P t1 = P(c[0], -c[0]) * x4;
        // complex block of 5
        const P t2 = t0 + t1;
        const P x11 = io.pair(11);
        // doubled bins
        const P t3 = c[0] * x11;
        const P x9 = io.pair(9);
        const P t4 = P(c[0], -c[0]) * x9;
        // complex block of 5
        const P t5 = t3 + t4;
        const P t6 = c[1] * t2;
        const P t7 = c[2] * t5;
        const P t8 = t6 - t7;
        const P x1 = io.pair(1);
        // doubled bins
        const P t9 = c[0] * x1;
        // complex block of 5
        const P t10 = t8 + t9;
        const P t11 = t0 - t1;
        const P t12 = flipped<0, 1>(t4);
        const P t13 = flipped<1, 0>(t3);
        const P t14 = t12 + t13;
        const P t15 = c[3] * t11;
        const P t16 = P(-c[4], c[4]) * t14;
        const P t17 = t15 + t16;
        const P t18 = shuffled<1, 0>(t17);
        const P t19 = flipped<0, 1>(t18);
        const P t20 = t10 + t19;
        // spectrum block of 25
        const P t21 = c[5] * t20;
        const P t22 = shuffled<1, 0>(t20);
        const P t23 = P(-c[6], c[6]) * t22;
        const P t24 = t21 + t23;
        const P x7 = io.pair(7);
        // doubled bins
        const P t25 = c[0] * x7;
        const P x3 = io.pair(3);
        const P t26 = P(c[0], -c[0]) * x3;
        // complex block of 5
        const P t27 = t25 + t26;
        const P x12 = io.pair(12);
        // doubled bins
        const P t28 = c[0] * x12;
        const P x8 = io.pair(8);
        const P t29 = P(c[0], -c[0]) * x8;
        // complex block of 5
        const P t30 = t28 + t29;
        const P t31 = c[1] * t27;
        const P t32 = c[2] * t30;
        const P t33 = t31 - t32;
        const P x2 = io.pair(2);
        // doubled bins
        const P t34 = c[0] * x2;
        // complex block of 5
        const P t35 = t33 + t34;
        const P t36 = t25 - t26;
        const P t37 = flipped<0, 1>(t29);
        const P t38 = flipped<1, 0>(t28);
        const P t39 = t37 + t38;
        const P t40 = c[3] * t36;
        const P t41 = P(-c[4], c[4]) * t39;
        const P t42 = t40 + t41;
        const P t43 = shuffled<1, 0>(t42);
        const P t44 = flipped<0, 1>(t43);
        const P t45 = t35 + t44;
        const P t46 = shuffled<1, 0>(t45);
        // spectrum block of 25
        const P t47 = c[9] * t46;
        const P t48 = P(c[10], -c[10]) * t45;
        const P t49 = t47 + t48;
        const P x5 = io.pair(5);
        // doubled bins
        const P t50 = c[0] * x5;
        const P t51 = shuffled<0, 2>(t50, t24);
        // spectrum block of 5
        const P t52 = c[1] * t51;
        const P x10 = io.pair(10);
        // doubled bins
        const P t53 = c[0] * x10;
        const P t54 = shuffled<0, 2>(t53, t49);
        // spectrum block of 5
        const P t55 = P(-c[2], c[2]) * t54;
        const P t56 = t52 + t55;
        const V t57 = part<0>(t56);
        const V x0r = io.re(0);
        const V t58 = t57 + x0r;
        const P t59 = shuffled<1, 3>(t50, t24);
        const P t60 = c[3] * t59;
        const P t61 = shuffled<1, 3>(t53, t49);
        const P t62 = c[4] * t61;
        const P t63 = t60 + t62;
        const V t64 = part<0>(t63);
        const V t65 = t58 + t64;
        // complex block of 5
        const P t66 = t2 + t5;
        const P t67 = t66 + t9;
        const P t68 = t10 - t19;
        const P t69 = c[2] * t2;
        const P t70 = t9 - t69;
        const P t71 = c[1] * t5;
        const P t72 = t70 + t71;
        const P t73 = c[4] * t11;
        const P t74 = P(c[3], -c[3]) * t14;
        const P t75 = t73 + t74;
        const P t76 = shuffled<1, 0>(t75);
        const P t77 = flipped<1, 0>(t76);
        const P t78 = t72 + t77;
        const P t79 = t72 - t77;
        // spectrum block of 25
        const P t80 = c[11] * t68;
        const P t81 = shuffled<1, 0>(t68);
        const P t82 = P(-c[12], c[12]) * t81;
        const P t83 = t80 + t82;
        const P t84 = c[7] * t78;
        const P t85 = shuffled<1, 0>(t78);
        const P t86 = P(-c[8], c[8]) * t85;
        const P t87 = t84 + t86;
        const P t88 = c[13] * t79;
        const P t89 = shuffled<1, 0>(t79);
        const P t90 = P(-c[14], c[14]) * t89;
        const P t91 = t88 + t90;
        // complex block of 5
        const P t92 = t27 + t30;
        const P t93 = t92 + t34;
        const P t94 = t35 - t44;
        const P t95 = c[2] * t27;
        const P t96 = t34 - t95;
        const P t97 = c[1] * t30;
        const P t98 = t96 + t97;
        const P t99 = c[4] * t36;
        const P t100 = P(c[3], -c[3]) * t39;
        const P t101 = t99 + t100;
        const P t102 = shuffled<1, 0>(t101);
        const P t103 = flipped<1, 0>(t102);
        const P t104 = t98 + t103;
        const P t105 = t98 - t103;
        // spectrum block of 25
        const P t106 = c[7] * t94;
        const P t107 = shuffled<1, 0>(t94);
        const P t108 = P(-c[8], c[8]) * t107;
        const P t109 = t106 + t108;
        const P t110 = c[5] * t104;
        const P t111 = shuffled<1, 0>(t104);
        const P t112 = P(-c[6], c[6]) * t111;
        const P t113 = t110 + t112;
        const P t114 = c[15] * t105;
        const P t115 = shuffled<1, 0>(t105);
        const P t116 = P(-c[16], c[16]) * t115;
        const P t117 = t114 + t116;
        const P t118 = shuffled<0, 2>(t67, t83);
        const P t119 = shuffled<0, 2>(t93, t109);
        // spectrum block of 5
        const P t120 = t118 + t119;
        const P t121 = flipped<0, 1>(t54);
        // spectrum block of 5
        const P t122 = t51 + t121;
        const P t123 = joined(x0r, t65);
        const P t124 = t122 + t123;
        const V t125 = part<1>(t124);
        io.out(4, t125);
        const V t126 = part<1>(t56);
        // spectrum block of 5
        const V t127 = t126 + t65;
        const P t128 = joined(t58, t127);
        // spectrum block of 5
        const P t129 = t128 - t63;
        const V t130 = part<1>(t129);
        io.out(9, t130);
        const P t131 = shuffled<0, 2>(t124, t129);
        // spectrum block of 5
        const P t132 = t120 + t131;
        io.out(0, 1, t132);
        const P t133 = c[1] * t118;
        const P t134 = c[2] * t119;
        const P t135 = t133 - t134;
        const P t136 = t135 + t131;
        const P t137 = shuffled<1, 3>(t67, t83);
        const P t138 = c[3] * t137;
        const P t139 = shuffled<1, 3>(t93, t109);
        const P t140 = c[4] * t139;
        const P t141 = t138 + t140;
        const P t142 = t136 - t141;
        io.out(5, 6, t142);
        const P t143 = t136 + t141;
        io.out(20, 21, t143);
        const P t144 = c[2] * t118;
        const P t145 = t131 - t144;
        const P t146 = c[1] * t119;
        const P t147 = t145 + t146;
        const P t148 = c[4] * t137;
        const P t149 = c[3] * t139;
        const P t150 = t148 - t149;
        const P t151 = t147 - t150;
        io.out(10, 11, t151);
        const P t152 = t147 + t150;
        io.out(15, 16, t152);
        const P t153 = shuffled<0, 2>(t87, t91);
        const P t154 = shuffled<0, 2>(t113, t117);
        // spectrum block of 5
        const P t155 = t153 + t154;
        // spectrum block of 5
        const P t156 = c[2] * t51;
        const P t157 = t123 - t156;
        const P t158 = P(c[1], -c[1]) * t54;
        const P t159 = t157 + t158;
        const P t160 = c[4] * t59;
        const P t161 = c[3] * t61;
        const P t162 = t160 - t161;
        const P t163 = t159 - t162;
        const V t164 = part<1>(t163);
        io.out(14, t164);
        const P t165 = t159 + t162;
        const V t166 = part<1>(t165);
        io.out(19, t166);
        const P t167 = shuffled<0, 2>(t163, t165);
        // spectrum block of 5
        const P t168 = t155 + t167;
        io.out(2, 3, t168);
        const P t169 = c[1] * t153;
        const P t170 = c[2] * t154;
        const P t171 = t169 - t170;
        const P t172 = t171 + t167;
        const P t173 = shuffled<1, 3>(t87, t91);
        const P t174 = c[3] * t173;
        const P t175 = shuffled<1, 3>(t113, t117);
        const P t176 = c[4] * t175;
        const P t177 = t174 + t176;
        const P t178 = t172 - t177;
        io.out(7, 8, t178);
        const P t179 = t172 + t177;
        io.out(22, 23, t179);
        const P t180 = c[2] * t153;
        const P t181 = t167 - t180;
        const P t182 = c[1] * t154;
        const P t183 = t181 + t182;
        const P t184 = c[4] * t173;
        const P t185 = c[3] * t175;
        const P t186 = t184 - t185;
        const P t187 = t183 - t186;
        io.out(12, 13, t187);
        const P t188 = t183 + t186;
        io.out(17, 18, t188);
        const V t189 = part<1>(t63);
        // spectrum block of 5
        const V t190 = t127 + t189;
        io.out(24, t190);
    }
};

}  // namespace zulg
