// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 26.
// Forward DFT of 26 real points, prime-factor 13, 2; two lanes to a register.
// 47 sums, 45 differences, 41 products of registers, which do the 290 steps of the graph, those with
// `scale` included; 27 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<26> {
    static constexpr int steps = 290;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.2869425954512852,  // c[2]: P[1] of 13
        0.5279915321544383,  // c[3]: -Q[1] of 13
        0.5242266395265821,  // c[4]: P[2] of 13
        0.29376443202296976,  // c[5]: -Q[2] of 13
        0.5751407294740031,  // c[6]: -Q[3] of 13
        0.1741386011521359,  // c[7]: -P[3] of 13
        0.42763404682657274,  // c[8]: P[4] of 13
        0.42218506973345193,  // c[9]: -Q[4] of 13
        0.5316276774946329,  // c[10]: P[5] of 13
        0.280148395734785,  // c[11]: Q[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: -beta of 13
        0.4330127018922193,  // c[14]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[15]: sin 2 pi 1/3 times sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x18_19 = io.in(18, 19);
        const P x6_5 = io.in(6, 5);
        // real block of 3
        const P t0 = x18_19 + x6_5;
        const P t1 = shuffled<0, 3>(x6_5, x18_19);
        const P t2 = shuffled<0, 3>(x18_19, x6_5);
        const P t3 = t1 - t2;
        const P x2_15 = io.in(2, 15);
        const P t4 = t0 + x2_15;
        const P t5 = c[0] * t0;
        const P t6 = x2_15 - t5;
        const P x22_9 = io.in(22, 9);
        const P x14_1 = io.in(14, 1);
        // real block of 3
        const P t7 = x22_9 + x14_1;
        const P t8 = x22_9 - x14_1;
        const P x16_3 = io.in(16, 3);
        const P t9 = t7 + x16_3;
        const P t10 = c[0] * t7;
        const P t11 = x16_3 - t10;
        const P x8_7 = io.in(8, 7);
        const P x20_21 = io.in(20, 21);
        // real block of 3
        const P t12 = x8_7 + x20_21;
        const P t13 = shuffled<0, 3>(x20_21, x8_7);
        const P t14 = shuffled<0, 3>(x8_7, x20_21);
        const P t15 = t13 - t14;
        const P x24_11 = io.in(24, 11);
        const P t16 = t12 + x24_11;
        const P t17 = c[0] * t12;
        const P t18 = x24_11 - t17;
        const P x4_17 = io.in(4, 17);
        const P x12_25 = io.in(12, 25);
        // real block of 3
        const P t19 = x4_17 + x12_25;
        const P t20 = x4_17 - x12_25;
        const P x10_23 = io.in(10, 23);
        const P t21 = t19 + x10_23;
        const P t22 = c[0] * t19;
        const P t23 = x10_23 - t22;
        // real block of 2
        const P t24 = t4 + t16;
        const P t25 = t4 - t16;
        // real block of 2
        const P t26 = t9 + t21;
        const P t27 = t9 - t21;
        // real block of 2
        const P t28 = t24 + t26;
        const P t29 = t24 - t26;
        // complex block of 2
        const P t30 = t6 + t18;
        // real block of 3
        const P t31 = c[1] * t3;
        // real block of 3
        const P t32 = c[1] * t15;
        // complex block of 2
        const P t33 = t31 + t32;
        const P t34 = t6 - t18;
        const P t35 = t32 - t31;
        // complex block of 2
        const P t36 = t11 + t23;
        // real block of 3
        const P t37 = c[1] * t8;
        // real block of 3
        const P t38 = c[1] * t20;
        // complex block of 2
        const P t39 = t37 + t38;
        const P t40 = t11 - t23;
        const P t41 = t38 - t37;
        // complex block of 2
        const P t42 = t30 + t36;
        const P t43 = t33 + t39;
        const P t44 = t30 - t36;
        const P t45 = t39 - t33;
        // complex block of 2
        const P t46 = t34 - t41;
        const P t47 = t35 + t40;
        const P t48 = t34 + t41;
        const P t49 = t35 - t40;
        const P x0_13 = io.in(0, 13);
        // real block of 13, multiplier 2
        const P t50 = x0_13 + t28;
        const P t51 = c[12] * t28;
        const P t52 = x0_13 - t51;
        const P t53 = c[2] * t48;
        const P t54 = c[3] * t49;
        const P t55 = t53 + t54;
        const P t56 = c[2] * t49;
        const P t57 = c[3] * t48;
        const P t58 = t56 - t57;
        const P t59 = c[4] * t44;
        const P t60 = c[5] * t45;
        const P t61 = t59 - t60;
        const P t62 = c[4] * t45;
        const P t63 = c[5] * t44;
        const P t64 = t62 + t63;
        const P t65 = c[6] * t27;
        const P t66 = c[7] * t25;
        const P t67 = t65 - t66;
        const P t68 = c[7] * t27;
        const P t69 = c[6] * t25;
        const P t70 = t68 + t69;
        const P t71 = c[8] * t42;
        const P t72 = c[9] * t43;
        const P t73 = t71 - t72;
        const P t74 = c[8] * t43;
        const P t75 = c[9] * t42;
        const P t76 = t74 + t75;
        const P t77 = c[10] * t46;
        const P t78 = c[11] * t47;
        const P t79 = t77 + t78;
        const P t80 = c[11] * t46;
        const P t81 = c[10] * t47;
        const P t82 = t80 - t81;
        const P t83 = c[13] * t29;
        // spectrum block of 2
        const P t84 = t52 - t83;
        const P t85 = t52 + t83;
        // complex block of 2
        const P t86 = t64 - t76;
        const P t87 = t73 + t61;
        const P t88 = t76 + t64;
        const P t89 = t73 - t61;
        // spectrum block of 3, multiplier 2
        const P t90 = t87 + t84;
        const P t91 = c[0] * t87;
        const P t92 = t84 - t91;
        const P t93 = c[1] * t86;
        const P t94 = t92 - t93;
        const P t95 = t92 + t93;
        // spectrum block of 3, multiplier 2
        const P t96 = t89 + t85;
        const P t97 = c[0] * t89;
        const P t98 = t85 - t97;
        const P t99 = c[1] * t88;
        const P t100 = t98 + t99;
        const P t101 = t98 - t99;
        const P t102 = shuffled<0, 3>(t55, t79);
        const P t103 = shuffled<0, 3>(t79, t55);
        // complex block of 2
        const P t104 = t102 - t103;
        const P t105 = t58 + t82;
        const P t106 = t55 + t79;
        const P t107 = t58 - t82;
        // mirrored skew block of 6
        const P t108 = c[1] * t107;
        const P t109 = c[0] * t106;
        const P t110 = t108 + t109;
        const P t111 = shuffled<0, 3>(t70, t105);
        const P t112 = shuffled<0, 3>(t105, t70);
        // spectrum block of 3, multiplier 2
        const P t113 = t111 - t112;
        const P t114 = c[0] * t105;
        const P t115 = t70 + t114;
        const P t116 = c[1] * t104;
        const P t117 = flipped<0, 1>(t115);
        const P t118 = t116 + t117;
        const P t119 = flipped<1, 0>(t116);
        const P t120 = t115 + t119;
        // spectrum block of 3, multiplier 2
        const P t121 = t110 + t67;
        const P t122 = c[0] * t110;
        const P t123 = t67 - t122;
        const P t124 = c[14] * t107;
        const P t125 = c[15] * t106;
        const P t126 = t124 - t125;
        const P t127 = t123 + t126;
        const P t128 = t123 - t126;
        const V t129 = part<0>(t50);
        const V t130 = part<1>(t50);
        // real block of 2
        const V t131 = t129 + t130;
        io.re(0, t131);
        const V t132 = t129 - t130;
        io.re(13, t132);
        const P t133 = shuffled<0, 3>(t90, t113);
        const P t134 = shuffled<1, 2>(t90, t113);
        const P t135 = flipped<0, 1>(t134);
        // complex block of 2
        const P t136 = t133 + t135;
        io.pair(2, t136);
        const P t137 = t133 - t135;
        io.pair(11, t137);
        const P t138 = shuffled<0, 2>(t101, t128);
        const P t139 = shuffled<1, 3>(t101, t128);
        // complex block of 2
        const P t140 = t138 + t139;
        io.pair(4, negated<0, 1>(t140));
        const P t141 = shuffled<0, 3>(t138, t139);
        const P t142 = shuffled<0, 3>(t139, t138);
        const P t143 = t141 - t142;
        io.pair(9, negated<0, 1>(t143));
        const P t144 = shuffled<0, 3>(t95, t118);
        const P t145 = shuffled<1, 2>(t95, t118);
        const P t146 = flipped<0, 1>(t145);
        // complex block of 2
        const P t147 = t144 + t146;
        io.pair(6, t147);
        const P t148 = t144 - t146;
        io.pair(7, t148);
        const P t149 = shuffled<0, 2>(t94, t120);
        const P t150 = shuffled<1, 3>(t94, t120);
        // complex block of 2
        const P t151 = t149 + t150;
        io.pair(8, t151);
        const P t152 = t149 - t150;
        io.pair(5, negated<0, 1>(t152));
        const P t153 = shuffled<0, 2>(t96, t127);
        const P t154 = shuffled<1, 3>(t96, t127);
        // complex block of 2
        const P t155 = t153 + t154;
        io.pair(10, negated<0, 1>(t155));
        const P t156 = shuffled<0, 3>(t153, t154);
        const P t157 = shuffled<0, 3>(t154, t153);
        const P t158 = t156 - t157;
        io.pair(3, negated<0, 1>(t158));
        const P t159 = shuffled<0, 2>(t100, t121);
        const P t160 = shuffled<1, 3>(t100, t121);
        // complex block of 2
        const P t161 = t159 + t160;
        io.pair(12, negated<0, 1>(t161));
        const P t162 = shuffled<0, 3>(t159, t160);
        const P t163 = shuffled<0, 3>(t160, t159);
        const P t164 = t162 - t163;
        io.pair(1, negated<0, 1>(t164));
    }
};

}  // namespace zulg
