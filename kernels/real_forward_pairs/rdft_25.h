// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 25.
// Forward DFT of 25 real points, twiddled 5, 5; two lanes to a register.
// 53 sums, 26 differences, 56 products of registers, which do the 289 steps of the graph, those with
// `scale` included; 39 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<25> {
    static constexpr int steps = 289;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.8763066800438636,  // c[4]: cos 2 pi 2/25
        0.48175367410171527,  // c[5]: sin 2 pi 2/25
        0.5358267949789967,  // c[6]: cos 2 pi 4/25
        0.8443279255020151,  // c[7]: sin 2 pi 4/25
        0.9685831611286311,  // c[8]: cos 2 pi 1/25
        0.2486898871648548,  // c[9]: sin 2 pi 1/25
        0.7289686274214116,  // c[10]: cos 2 pi 3/25
        0.6845471059286887,  // c[11]: sin 2 pi 3/25
        0.06279051952931337,  // c[12]: cos 2 pi 6/25
        0.9980267284282716,  // c[13]: sin 2 pi 6/25
        0.42577929156507266,  // c[14]: -cos 2 pi 8/25
        0.9048270524660196,  // c[15]: sin 2 pi 8/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x5_6 = io.in(5, 6);
        const P x20_21 = io.in(20, 21);
        // real block of 5
        const P t0 = x5_6 + x20_21;
        const P t1 = x5_6 - x20_21;
        const P x15_16 = io.in(15, 16);
        const P x10_11 = io.in(10, 11);
        const P t2 = x15_16 + x10_11;
        const P t3 = x15_16 - x10_11;
        const P t4 = t0 + t2;
        const P x0_1 = io.in(0, 1);
        const P t5 = t4 + x0_1;
        const P t6 = c[0] * t0;
        const P t7 = c[1] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x0_1;
        const P t10 = c[2] * t3;
        const P t11 = c[3] * t1;
        const P t12 = t10 - t11;
        const P t13 = c[1] * t0;
        const P t14 = x0_1 - t13;
        const P t15 = c[0] * t2;
        const P t16 = t14 + t15;
        const P t17 = c[2] * t1;
        const P t18 = c[3] * t3;
        const P t19 = t17 + t18;
        const P x7_8 = io.in(7, 8);
        const P x22_23 = io.in(22, 23);
        // real block of 5
        const P t20 = x7_8 + x22_23;
        const P t21 = x7_8 - x22_23;
        const P x17_18 = io.in(17, 18);
        const P x12_13 = io.in(12, 13);
        const P t22 = x17_18 + x12_13;
        const P t23 = x17_18 - x12_13;
        const P t24 = t20 + t22;
        const P x2_3 = io.in(2, 3);
        const P t25 = t24 + x2_3;
        const P t26 = c[0] * t20;
        const P t27 = c[1] * t22;
        const P t28 = t26 - t27;
        const P t29 = t28 + x2_3;
        const P t30 = c[2] * t23;
        const P t31 = c[3] * t21;
        const P t32 = t30 - t31;
        const P t33 = c[1] * t20;
        const P t34 = x2_3 - t33;
        const P t35 = c[0] * t22;
        const P t36 = t34 + t35;
        const P t37 = c[2] * t21;
        const P t38 = c[3] * t23;
        const P t39 = t37 + t38;
        const V x9 = io.in(9);
        const V x24 = io.in(24);
        // real block of 5
        const V t40 = x9 + x24;
        const V x19 = io.in(19);
        const V t41 = part<1>(t25);
        const P t42 = joined(x19, t41);
        const V x14 = io.in(14);
        const V t43 = part<0>(t25);
        const P t44 = joined(x14, t43);
        const P t45 = t42 + t44;
        const V t46 = part<0>(t45);
        const V t47 = t40 + t46;
        const V x4 = io.in(4);
        const V t48 = t47 + x4;
        const V t49 = part<1>(t5);
        // real block of 5
        const V t50 = t49 + t48;
        const P t51 = joined(x9, t49);
        const P t52 = joined(x24, t48);
        // real block of 5
        const P t53 = t51 - t52;
        const P t54 = t42 - t44;
        const V t55 = part<1>(t45);
        // real block of 5
        const V t56 = t50 + t55;
        const V t57 = part<0>(t5);
        const V t58 = t56 + t57;
        io.re(0, t58);
        const P t59 = joined(t40, t50);
        // real block of 5
        const P t60 = c[0] * t59;
        const P t61 = c[1] * t45;
        const P t62 = t60 - t61;
        const P t63 = joined(x4, t57);
        const P t64 = t62 + t63;
        const P t65 = c[2] * t54;
        const P t66 = c[3] * t53;
        const P t67 = t65 - t66;
        const P t68 = shuffled<1, 3>(t64, t67);
        io.pair(5, t68);
        const P t69 = c[1] * t59;
        const P t70 = t63 - t69;
        const P t71 = c[0] * t45;
        const P t72 = t70 + t71;
        const P t73 = c[2] * t53;
        const P t74 = c[3] * t54;
        const P t75 = t73 + t74;
        const P t76 = shuffled<1, 3>(t72, t75);
        io.pair(10, negated<0, 1>(t76));
        const P t77 = shuffled<1, 3>(t9, t12);
        // real block of 25
        const P t78 = c[8] * t77;
        const P t79 = shuffled<1, 0>(t77);
        const P t80 = P(c[9], -c[9]) * t79;
        const P t81 = t78 + t80;
        const P t82 = shuffled<0, 2>(t29, t32);
        const P t83 = c[4] * t82;
        const P t84 = shuffled<1, 0>(t82);
        const P t85 = P(c[5], -c[5]) * t84;
        const P t86 = t83 + t85;
        const P t87 = shuffled<1, 3>(t29, t32);
        const P t88 = c[10] * t87;
        const P t89 = shuffled<1, 0>(t87);
        const P t90 = P(c[11], -c[11]) * t89;
        const P t91 = t88 + t90;
        const P t92 = shuffled<0, 2>(t64, t67);
        const P t93 = c[6] * t92;
        const P t94 = shuffled<1, 0>(t92);
        const P t95 = P(c[7], -c[7]) * t94;
        const P t96 = t93 + t95;
        // complex block of 5
        const P t97 = t81 + t96;
        const P t98 = t81 - t96;
        const P t99 = t91 + t86;
        const P t100 = t91 - t86;
        const P t101 = t97 + t99;
        const P t102 = shuffled<0, 2>(t9, t12);
        const P t103 = t101 + t102;
        io.pair(1, t103);
        const P t104 = c[0] * t97;
        const P t105 = c[1] * t99;
        const P t106 = t104 - t105;
        const P t107 = t106 + t102;
        const P t108 = c[3] * t98;
        const P t109 = c[2] * t100;
        const P t110 = t108 - t109;
        const P t111 = shuffled<1, 0>(t110);
        const P t112 = flipped<0, 1>(t111);
        const P t113 = t107 + t112;
        io.pair(6, t113);
        const P t114 = t107 - t112;
        io.pair(4, negated<0, 1>(t114));
        const P t115 = c[1] * t97;
        const P t116 = t102 - t115;
        const P t117 = c[0] * t99;
        const P t118 = t116 + t117;
        const P t119 = c[2] * t98;
        const P t120 = c[3] * t100;
        const P t121 = t119 + t120;
        const P t122 = shuffled<1, 0>(t121);
        const P t123 = flipped<0, 1>(t122);
        const P t124 = t118 + t123;
        io.pair(11, t124);
        const P t125 = t118 - t123;
        io.pair(9, negated<0, 1>(t125));
        const P t126 = shuffled<1, 3>(t16, t19);
        // real block of 25
        const P t127 = c[4] * t126;
        const P t128 = shuffled<1, 0>(t126);
        const P t129 = P(-c[5], c[5]) * t128;
        const P t130 = t127 + t129;
        const P t131 = shuffled<0, 2>(t36, t39);
        const P t132 = c[6] * t131;
        const P t133 = shuffled<1, 0>(t131);
        const P t134 = P(-c[7], c[7]) * t133;
        const P t135 = t132 + t134;
        const P t136 = shuffled<1, 3>(t36, t39);
        const P t137 = c[12] * t136;
        const P t138 = shuffled<1, 0>(t136);
        const P t139 = P(-c[13], c[13]) * t138;
        const P t140 = t137 + t139;
        const P t141 = shuffled<0, 2>(t72, t75);
        const P t142 = c[14] * t141;
        const P t143 = shuffled<1, 0>(t141);
        const P t144 = P(c[15], -c[15]) * t143;
        const P t145 = t142 + t144;
        const P t146 = shuffled<0, 3>(t130, t145);
        const P t147 = shuffled<0, 3>(t145, t130);
        // complex block of 5
        const P t148 = t146 - t147;
        const P t149 = t130 + t145;
        const P t150 = t140 + t135;
        const P t151 = shuffled<0, 3>(t140, t135);
        const P t152 = shuffled<0, 3>(t135, t140);
        const P t153 = t151 - t152;
        const P t154 = flipped<0, 1>(t150);
        const P t155 = t148 + t154;
        const P t156 = shuffled<0, 2>(t16, t19);
        const P t157 = flipped<0, 1>(t156);
        const P t158 = t155 + t157;
        io.pair(2, t158);
        const P t159 = c[0] * t148;
        const P t160 = P(-c[1], c[1]) * t150;
        const P t161 = t159 + t160;
        const P t162 = t161 + t157;
        const P t163 = c[3] * t149;
        const P t164 = P(-c[2], c[2]) * t153;
        const P t165 = t163 + t164;
        const P t166 = shuffled<1, 0>(t165);
        const P t167 = t162 - t166;
        io.pair(7, t167);
        const P t168 = t162 + t166;
        io.pair(3, negated<0, 1>(t168));
        const P t169 = P(-c[1], c[1]) * t148;
        const P t170 = t156 + t169;
        const P t171 = c[0] * t150;
        const P t172 = t170 + t171;
        const P t173 = c[3] * t153;
        const P t174 = P(c[2], -c[2]) * t149;
        const P t175 = t173 + t174;
        const P t176 = shuffled<1, 0>(t175);
        const P t177 = t172 + t176;
        io.pair(12, negated<0, 1>(t177));
        const P t178 = shuffled<0, 3>(t172, t176);
        const P t179 = shuffled<0, 3>(t176, t172);
        const P t180 = t178 - t179;
        io.pair(8, negated<0, 1>(t180));
    }
};

}  // namespace zulg
