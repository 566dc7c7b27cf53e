// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 17.
// Hartley transform of 17 points, form F; two lanes to a register.
// 48 sums, 35 differences, 30 products of registers, which do the 203 steps of the graph, those with
// `scale` included; 49 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<17> {
    static constexpr int steps = 203;  // with `scale`
    static constexpr double inverseRoot = 0.24253562503633297;  // 1/sqrt(17), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.2906530375466148,  // c[3]: -P[1] of 17
        0.425612278682049,  // c[4]: -Q[1] of 17
        0.3809911760447736,  // c[5]: P[2] of 17
        0.347088927763506,  // c[6]: -Q[2] of 17
        0.07814056923069293,  // c[7]: P[3] of 17
        0.5094301241979152,  // c[8]: -Q[3] of 17
        0.40623178445333147,  // c[9]: Q[4] of 17
        0.31717619283272513,  // c[10]: P[4] of 17
        0.5020314050995693,  // c[11]: Q[5] of 17
        0.1165738748337385,  // c[12]: -P[5] of 17
        0.5139020806887744,  // c[13]: Q[6] of 17
        0.039110758925753275,  // c[14]: P[6] of 17
        0.07176933159324189,  // c[15]: Q[7] of 17
        0.5103666946839882,  // c[16]: P[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_3 = io.in(1, 3);
        const P x16_14 = io.in(16, 14);
        // real block of 2
        const P t0 = x1_3 + x16_14;
        const P t1 = x1_3 - x16_14;
        const P x4_5 = io.in(4, 5);
        const P x13_12 = io.in(13, 12);
        // real block of 2
        const P t2 = x4_5 + x13_12;
        const P t3 = shuffled<0, 3>(x13_12, x4_5);
        const P t4 = shuffled<0, 3>(x4_5, x13_12);
        const P t5 = t3 - t4;
        // real block of 2
        const P t6 = t0 + t2;
        const P t7 = t0 - t2;
        const P x9_10 = io.in(9, 10);
        const P x8_7 = io.in(8, 7);
        // real block of 2
        const P t8 = x9_10 + x8_7;
        const P t9 = x9_10 - x8_7;
        const P x15_11 = io.in(15, 11);
        const P x2_6 = io.in(2, 6);
        // real block of 2
        const P t10 = x15_11 + x2_6;
        const P t11 = x15_11 - x2_6;
        // real block of 2
        const P t12 = t8 + t10;
        const P t13 = t8 - t10;
        // real block of 2
        const P t14 = t6 + t12;
        const P t15 = t6 - t12;
        const V t16 = part<0>(t14);
        const V t17 = part<1>(t14);
        // real block of 2
        const V t18 = t16 + t17;
        const V t19 = t16 - t17;
        const P t20 = shuffled<1, 3>(t1, t5);
        // real block of 16
        const P t21 = c[0] * t20;
        const P t22 = shuffled<1, 0>(t20);
        const P t23 = P(-c[1], c[1]) * t22;
        const P t24 = t21 + t23;
        const P t25 = shuffled<0, 2>(t9, t11);
        const P t26 = shuffled<1, 0>(t25);
        const P t27 = flipped<1, 0>(t26);
        const P t28 = t25 + t27;
        const P t29 = shuffled<1, 3>(t9, t11);
        const P t30 = c[1] * t29;
        const P t31 = shuffled<1, 0>(t29);
        const P t32 = P(-c[0], c[0]) * t31;
        const P t33 = t30 + t32;
        const P t34 = shuffled<0, 2>(t1, t5);
        const P t35 = c[2] * t28;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = shuffled<0, 3>(t34, t35);
        const P t38 = shuffled<0, 3>(t35, t34);
        const P t39 = t37 - t38;
        // complex block of 2
        const P t40 = t24 + t33;
        const P t41 = shuffled<0, 3>(t24, t33);
        const P t42 = shuffled<0, 3>(t33, t24);
        const P t43 = t41 - t42;
        // complex block of 2
        const P t44 = t36 + t40;
        const P t45 = shuffled<0, 3>(t36, t40);
        const P t46 = shuffled<0, 3>(t40, t36);
        const P t47 = t45 - t46;
        const P t48 = shuffled<1, 0>(t43);
        const P t49 = flipped<0, 1>(t48);
        // complex block of 2
        const P t50 = t39 + t49;
        const P t51 = t39 - t49;
        const V t52 = part<1>(t7);
        const V t53 = part<1>(t13);
        // skew block of 4
        const V t54 = t52 - t53;
        const V t55 = t52 + t53;
        const V t56 = c[2] * t55;
        const V t57 = part<0>(t13);
        const V t58 = t56 - t57;
        const V t59 = part<0>(t7);
        const V t60 = c[2] * t54;
        const V t61 = t59 + t60;
        const V t62 = t57 + t56;
        const V t63 = t59 - t60;
        const V x0 = io.in(0);
        // real block of 17
        const V t64 = x0 + t18;
        io.out(0, t64);
        const V t65 = c[17] * t18;
        const V t66 = x0 - t65;
        const P t67 = c[3] * t44;
        const P t68 = shuffled<1, 0>(t44);
        const P t69 = P(c[4], -c[4]) * t68;
        const P t70 = t67 + t69;
        const P t71 = joined(t61, t62);
        const P t72 = c[5] * t71;
        const P t73 = shuffled<1, 0>(t71);
        const P t74 = P(-c[6], c[6]) * t73;
        const P t75 = t72 + t74;
        const P t76 = c[7] * t51;
        const P t77 = shuffled<1, 0>(t51);
        const P t78 = P(-c[8], c[8]) * t77;
        const P t79 = t76 + t78;
        const P t80 = shuffled<1, 0>(t15);
        const P t81 = c[9] * t80;
        const P t82 = P(c[10], -c[10]) * t15;
        const P t83 = t81 + t82;
        const P t84 = shuffled<1, 0>(t50);
        const P t85 = c[11] * t84;
        const P t86 = P(c[12], -c[12]) * t50;
        const P t87 = t85 + t86;
        const P t88 = joined(t58, t63);
        const P t89 = c[13] * t88;
        const P t90 = shuffled<1, 0>(t88);
        const P t91 = P(c[14], -c[14]) * t90;
        const P t92 = t89 + t91;
        const P t93 = shuffled<1, 0>(t47);
        const P t94 = c[15] * t93;
        const P t95 = P(c[16], -c[16]) * t47;
        const P t96 = t94 + t95;
        const V t97 = c[18] * t19;
        // spectrum block of 2
        const V t98 = t66 + t97;
        const V t99 = t66 - t97;
        const P t100 = joined(t98, t99);
        const P t101 = flipped<0, 1>(t83);
        // spectrum block of 2
        const P t102 = t100 + t101;
        const P t103 = t100 - t101;
        const V t104 = part<0>(t75);
        const V t105 = part<0>(t92);
        // mirrored skew block of 4
        const V t106 = t104 - t105;
        const V t107 = part<1>(t92);
        const V t108 = part<1>(t75);
        const V t109 = t107 - t108;
        const V t110 = t104 + t105;
        const V t111 = c[2] * t106;
        const V t112 = c[2] * t109;
        const V t113 = t111 - t112;
        const V t114 = t108 + t107;
        const V t115 = t111 + t112;
        const P t116 = joined(t110, t113);
        // spectrum block of 2
        const P t117 = t102 + t116;
        const P t118 = t102 - t116;
        const V t119 = flipped<1>(t115);
        const P t120 = joined(t114, t119);
        // spectrum block of 2
        const P t121 = t103 + t120;
        const P t122 = t103 - t120;
        const P t123 = shuffled<1, 0>(t70);
        const P t124 = shuffled<1, 0>(t96);
        // complex block of 2
        const P t125 = t123 + t124;
        const P t126 = t123 - t124;
        const P t127 = shuffled<1, 0>(t87);
        const P t128 = shuffled<1, 0>(t79);
        const P t129 = flipped<1, 0>(t128);
        // complex block of 2
        const P t130 = t127 + t129;
        const P t131 = t127 - t129;
        // complex block of 2
        const P t132 = t125 + t130;
        const P t133 = t125 - t130;
        const P t134 = shuffled<1, 0>(t131);
        const P t135 = flipped<1, 0>(t134);
        // complex block of 2
        const P t136 = t126 + t135;
        const P t137 = t126 - t135;
        // mirrored skew block of 8
        const P t138 = c[0] * t136;
        const P t139 = shuffled<1, 0>(t136);
        const P t140 = P(-c[1], c[1]) * t139;
        const P t141 = t138 + t140;
        const P t142 = c[2] * t133;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = flipped<0, 1>(t143);
        const P t145 = t142 + t144;
        const P t146 = c[1] * t137;
        const P t147 = shuffled<1, 0>(t137);
        const P t148 = P(-c[0], c[0]) * t147;
        const P t149 = t146 + t148;
        const V t150 = part<0>(t117);
        const V t151 = part<0>(t132);
        // output stage
        const V t152 = t150 - t151;
        io.out(1, t152);
        const V t153 = t150 + t151;
        io.out(16, t153);
        const V t154 = part<0>(t121);
        const V t155 = part<1>(t145);
        const V t156 = t154 + t155;
        io.out(2, t156);
        const V t157 = t154 - t155;
        io.out(15, t157);
        const V t158 = part<1>(t122);
        const V t159 = part<1>(t149);
        const V t160 = t158 - t159;
        io.out(3, t160);
        const V t161 = t158 + t159;
        io.out(14, t161);
        const V t162 = part<0>(t118);
        const V t163 = part<1>(t132);
        const V t164 = t162 + t163;
        io.out(4, t164);
        const V t165 = t162 - t163;
        io.out(13, t165);
        const V t166 = part<1>(t121);
        const V t167 = part<0>(t149);
        const V t168 = t166 + t167;
        io.out(5, t168);
        const V t169 = t166 - t167;
        io.out(12, t169);
        const V t170 = part<1>(t117);
        const V t171 = part<0>(t141);
        const V t172 = t170 - t171;
        io.out(6, t172);
        const V t173 = t170 + t171;
        io.out(11, t173);
        const V t174 = part<1>(t118);
        const V t175 = part<1>(t141);
        const V t176 = t174 + t175;
        io.out(7, t176);
        const V t177 = t174 - t175;
        io.out(10, t177);
        const V t178 = part<0>(t122);
        const V t179 = part<0>(t145);
        const V t180 = t178 + t179;
        io.out(8, t180);
        const V t181 = t178 - t179;
        io.out(9, t181);
    }
};

}  // namespace zulg
