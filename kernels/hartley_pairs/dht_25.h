// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 25.
// Hartley transform of 25 points, form I; two lanes to a register.
// 58 sums, 32 differences, 56 products of registers, which do the 313 steps of the graph, those with
// `scale` included; 44 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<25> {
    static constexpr int steps = 313;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5358267949789967,  // c[4]: cos 2 pi 21/25
        0.8443279255020151,  // c[5]: -sin 2 pi 21/25
        0.8763066800438636,  // c[6]: cos 2 pi 23/25
        0.48175367410171527,  // c[7]: -sin 2 pi 23/25
        0.9048270524660196,  // c[8]: -sin 2 pi 17/25
        0.42577929156507266,  // c[9]: -cos 2 pi 17/25
        0.9685831611286311,  // c[10]: cos 2 pi 24/25
        0.2486898871648548,  // c[11]: -sin 2 pi 24/25
        0.7289686274214116,  // c[12]: cos 2 pi 22/25
        0.6845471059286887,  // c[13]: -sin 2 pi 22/25
        0.06279051952931337,  // c[14]: cos 2 pi 19/25
        0.9980267284282716,  // c[15]: -sin 2 pi 19/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x24_23 = io.in(24, 23);
        // input stage
        const P t0 = x1_2 + x24_23;
        const P t1 = x1_2 - x24_23;
        const P x3_4 = io.in(3, 4);
        const P x22_21 = io.in(22, 21);
        const P t2 = x3_4 + x22_21;
        const P t3 = x3_4 - x22_21;
        const P x5_6 = io.in(5, 6);
        const P x20_19 = io.in(20, 19);
        const P t4 = x5_6 + x20_19;
        const P t5 = x5_6 - x20_19;
        const P x7_8 = io.in(7, 8);
        const P x18_17 = io.in(18, 17);
        const P t6 = x7_8 + x18_17;
        const P t7 = x7_8 - x18_17;
        const P x9_10 = io.in(9, 10);
        const P x16_15 = io.in(16, 15);
        const P t8 = x9_10 + x16_15;
        const P t9 = x9_10 - x16_15;
        const P x11_12 = io.in(11, 12);
        const P x14_13 = io.in(14, 13);
        const P t10 = x11_12 + x14_13;
        const P t11 = x11_12 - x14_13;
        const P t12 = shuffled<1, 3>(t4, t5);
        const P t13 = shuffled<1, 3>(t2, t3);
        const P t14 = flipped<0, 1>(t13);
        // complex block of 5
        const P t15 = t12 + t14;
        const P t16 = shuffled<0, 2>(t8, t11);
        const P t17 = shuffled<0, 2>(t10, t9);
        const P t18 = flipped<0, 1>(t17);
        const P t19 = t16 + t18;
        const P t20 = c[0] * t15;
        const P t21 = c[1] * t19;
        const P t22 = t20 - t21;
        const P t23 = shuffled<0, 2>(t0, t1);
        const P t24 = t22 + t23;
        const P t25 = t12 - t14;
        const P t26 = t16 - t18;
        const P t27 = c[2] * t25;
        const P t28 = P(-c[3], c[3]) * t26;
        const P t29 = t27 + t28;
        const P t30 = shuffled<1, 0>(t29);
        const P t31 = flipped<0, 1>(t30);
        const P t32 = t24 + t31;
        // spectrum block of 25
        const P t33 = c[4] * t32;
        const P t34 = shuffled<1, 0>(t32);
        const P t35 = P(-c[5], c[5]) * t34;
        const P t36 = t33 + t35;
        const P t37 = shuffled<0, 2>(t6, t7);
        const P t38 = shuffled<0, 2>(t2, t3);
        const P t39 = flipped<0, 1>(t38);
        // complex block of 5
        const P t40 = t37 + t39;
        const P t41 = shuffled<1, 3>(t6, t11);
        const P t42 = shuffled<1, 3>(t10, t7);
        const P t43 = flipped<0, 1>(t42);
        const P t44 = t41 + t43;
        const P t45 = c[0] * t40;
        const P t46 = c[1] * t44;
        const P t47 = t45 - t46;
        const P t48 = shuffled<1, 3>(t0, t1);
        const P t49 = t47 + t48;
        const P t50 = t37 - t39;
        const P t51 = t41 - t43;
        const P t52 = c[2] * t50;
        const P t53 = P(-c[3], c[3]) * t51;
        const P t54 = t52 + t53;
        const P t55 = shuffled<1, 0>(t54);
        const P t56 = flipped<0, 1>(t55);
        const P t57 = t49 + t56;
        const P t58 = shuffled<1, 0>(t57);
        // spectrum block of 25
        const P t59 = c[8] * t58;
        const P t60 = P(c[9], -c[9]) * t57;
        const P t61 = t59 + t60;
        const P t62 = shuffled<0, 2>(t4, t36);
        // spectrum block of 5
        const P t63 = c[0] * t62;
        const P t64 = shuffled<1, 2>(t8, t61);
        const P t65 = P(-c[1], c[1]) * t64;
        const P t66 = t63 + t65;
        const V t67 = part<0>(t66);
        const V x0 = io.in(0);
        const V t68 = t67 + x0;
        const P t69 = shuffled<0, 3>(t5, t36);
        const P t70 = c[2] * t69;
        const P t71 = shuffled<1, 3>(t9, t61);
        const P t72 = c[3] * t71;
        const P t73 = t70 + t72;
        const V t74 = part<0>(t73);
        const V t75 = t68 + t74;
        // complex block of 5
        const P t76 = t15 + t19;
        const P t77 = t76 + t23;
        const P t78 = t24 - t31;
        const P t79 = c[1] * t15;
        const P t80 = t23 - t79;
        const P t81 = c[0] * t19;
        const P t82 = t80 + t81;
        const P t83 = c[3] * t25;
        const P t84 = P(c[2], -c[2]) * t26;
        const P t85 = t83 + t84;
        const P t86 = shuffled<1, 0>(t85);
        const P t87 = flipped<1, 0>(t86);
        const P t88 = t82 + t87;
        const P t89 = t82 - t87;
        // spectrum block of 25
        const P t90 = c[10] * t78;
        const P t91 = shuffled<1, 0>(t78);
        const P t92 = P(-c[11], c[11]) * t91;
        const P t93 = t90 + t92;
        const P t94 = c[6] * t88;
        const P t95 = shuffled<1, 0>(t88);
        const P t96 = P(-c[7], c[7]) * t95;
        const P t97 = t94 + t96;
        const P t98 = c[12] * t89;
        const P t99 = shuffled<1, 0>(t89);
        const P t100 = P(-c[13], c[13]) * t99;
        const P t101 = t98 + t100;
        // complex block of 5
        const P t102 = t40 + t44;
        const P t103 = t102 + t48;
        const P t104 = t49 - t56;
        const P t105 = c[1] * t40;
        const P t106 = t48 - t105;
        const P t107 = c[0] * t44;
        const P t108 = t106 + t107;
        const P t109 = c[3] * t50;
        const P t110 = P(c[2], -c[2]) * t51;
        const P t111 = t109 + t110;
        const P t112 = shuffled<1, 0>(t111);
        const P t113 = flipped<1, 0>(t112);
        const P t114 = t108 + t113;
        const P t115 = t108 - t113;
        // spectrum block of 25
        const P t116 = c[6] * t104;
        const P t117 = shuffled<1, 0>(t104);
        const P t118 = P(-c[7], c[7]) * t117;
        const P t119 = t116 + t118;
        const P t120 = c[4] * t114;
        const P t121 = shuffled<1, 0>(t114);
        const P t122 = P(-c[5], c[5]) * t121;
        const P t123 = t120 + t122;
        const P t124 = c[14] * t115;
        const P t125 = shuffled<1, 0>(t115);
        const P t126 = P(-c[15], c[15]) * t125;
        const P t127 = t124 + t126;
        const P t128 = shuffled<0, 2>(t77, t93);
        const P t129 = shuffled<0, 2>(t103, t119);
        // spectrum block of 5
        const P t130 = t128 + t129;
        const P t131 = flipped<0, 1>(t64);
        // spectrum block of 5
        const P t132 = t62 + t131;
        const P t133 = joined(x0, t75);
        const P t134 = t132 + t133;
        const V t135 = part<1>(t134);
        io.out(21, t135);
        const V t136 = part<1>(t66);
        // spectrum block of 5
        const V t137 = t136 + t75;
        const P t138 = joined(t68, t137);
        // spectrum block of 5
        const P t139 = t138 - t73;
        const V t140 = part<1>(t139);
        io.out(16, t140);
        const P t141 = shuffled<0, 2>(t134, t139);
        // spectrum block of 5
        const P t142 = t130 + t141;
        io.out(0, 24, t142);
        const P t143 = c[0] * t128;
        const P t144 = c[1] * t129;
        const P t145 = t143 - t144;
        const P t146 = t145 + t141;
        const P t147 = shuffled<1, 3>(t77, t93);
        const P t148 = c[2] * t147;
        const P t149 = shuffled<1, 3>(t103, t119);
        const P t150 = c[3] * t149;
        const P t151 = t148 + t150;
        const P t152 = t146 - t151;
        io.out(20, 19, t152);
        const P t153 = t146 + t151;
        io.out(5, 4, t153);
        const P t154 = c[1] * t128;
        const P t155 = t141 - t154;
        const P t156 = c[0] * t129;
        const P t157 = t155 + t156;
        const P t158 = c[3] * t147;
        const P t159 = c[2] * t149;
        const P t160 = t158 - t159;
        const P t161 = t157 - t160;
        io.out(15, 14, t161);
        const P t162 = t157 + t160;
        io.out(10, 9, t162);
        const P t163 = shuffled<0, 2>(t97, t101);
        const P t164 = shuffled<0, 2>(t123, t127);
        // spectrum block of 5
        const P t165 = t163 + t164;
        // spectrum block of 5
        const P t166 = c[1] * t62;
        const P t167 = t133 - t166;
        const P t168 = P(c[0], -c[0]) * t64;
        const P t169 = t167 + t168;
        const P t170 = c[3] * t69;
        const P t171 = c[2] * t71;
        const P t172 = t170 - t171;
        const P t173 = t169 - t172;
        const V t174 = part<1>(t173);
        io.out(11, t174);
        const P t175 = t169 + t172;
        const V t176 = part<1>(t175);
        io.out(6, t176);
        const P t177 = shuffled<0, 2>(t173, t175);
        // spectrum block of 5
        const P t178 = t165 + t177;
        io.out(23, 22, t178);
        const P t179 = c[0] * t163;
        const P t180 = c[1] * t164;
        const P t181 = t179 - t180;
        const P t182 = t181 + t177;
        const P t183 = shuffled<1, 3>(t97, t101);
        const P t184 = c[2] * t183;
        const P t185 = shuffled<1, 3>(t123, t127);
        const P t186 = c[3] * t185;
        const P t187 = t184 + t186;
        const P t188 = t182 - t187;
        io.out(18, 17, t188);
        const P t189 = t182 + t187;
        io.out(3, 2, t189);
        const P t190 = c[1] * t163;
        const P t191 = t177 - t190;
        const P t192 = c[0] * t164;
        const P t193 = t191 + t192;
        const P t194 = c[3] * t183;
        const P t195 = c[2] * t185;
        const P t196 = t194 - t195;
        const P t197 = t193 - t196;
        io.out(13, 12, t197);
        const P t198 = t193 + t196;
        io.out(8, 7, t198);
        const V t199 = part<1>(t73);
        // spectrum block of 5
        const V t200 = t137 + t199;
        io.out(1, t200);
    }
};

}  // namespace zulg
