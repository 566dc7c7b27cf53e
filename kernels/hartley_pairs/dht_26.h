// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 26.
// Hartley transform of 26 points, form F; two lanes to a register.
// 52 sums, 52 differences, 41 products of registers, which do the 314 steps of the graph, those with
// `scale` included; 35 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<26> {
    static constexpr int steps = 314;  // with `scale`
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
        const ConstantsOf<Ports, HartleyPairs> c{};
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
        // complex block of 2
        const P t102 = t79 - t55;
        const P t103 = t58 + t82;
        const P t104 = t55 + t79;
        const P t105 = t58 - t82;
        // mirrored skew block of 6
        const P t106 = c[1] * t105;
        const P t107 = c[0] * t104;
        const P t108 = t106 + t107;
        // spectrum block of 3, multiplier 2
        const P t109 = t103 - t70;
        const P t110 = c[0] * t103;
        const P t111 = t70 + t110;
        const P t112 = c[1] * t102;
        const P t113 = t112 - t111;
        const P t114 = t111 + t112;
        // spectrum block of 3, multiplier 2
        const P t115 = t108 + t67;
        const P t116 = c[0] * t108;
        const P t117 = t67 - t116;
        const P t118 = c[14] * t105;
        const P t119 = c[15] * t104;
        const P t120 = t118 - t119;
        const P t121 = t117 + t120;
        const P t122 = t117 - t120;
        const P t123 = shuffled<0, 2>(t90, t109);
        const P t124 = shuffled<1, 3>(t90, t109);
        // complex block of 2
        const P t125 = t123 + t124;
        const P t126 = t123 - t124;
        const P t127 = shuffled<0, 2>(t101, t122);
        const P t128 = shuffled<1, 3>(t101, t122);
        // complex block of 2
        const P t129 = t127 + t128;
        const P t130 = shuffled<0, 3>(t127, t128);
        const P t131 = shuffled<0, 3>(t128, t127);
        const P t132 = t130 - t131;
        const P t133 = shuffled<0, 2>(t95, t113);
        const P t134 = shuffled<1, 3>(t95, t113);
        // complex block of 2
        const P t135 = t133 + t134;
        const P t136 = t133 - t134;
        const P t137 = shuffled<0, 2>(t94, t114);
        const P t138 = shuffled<1, 3>(t94, t114);
        // complex block of 2
        const P t139 = t137 + t138;
        const P t140 = t137 - t138;
        const P t141 = shuffled<0, 2>(t96, t121);
        const P t142 = shuffled<1, 3>(t96, t121);
        // complex block of 2
        const P t143 = t141 + t142;
        const P t144 = shuffled<0, 3>(t141, t142);
        const P t145 = shuffled<0, 3>(t142, t141);
        const P t146 = t144 - t145;
        const P t147 = shuffled<0, 2>(t100, t115);
        const P t148 = shuffled<1, 3>(t100, t115);
        // complex block of 2
        const P t149 = t147 + t148;
        const P t150 = shuffled<0, 3>(t147, t148);
        const P t151 = shuffled<0, 3>(t148, t147);
        const P t152 = t150 - t151;
        const V t153 = part<0>(t152);
        const V t154 = part<1>(t152);
        // output stage
        const V t155 = t153 + t154;
        io.out(1, t155);
        const V t156 = t153 - t154;
        io.out(25, t156);
        const P t157 = shuffled<0, 2>(t50, t125);
        const P t158 = shuffled<1, 3>(t50, t125);
        // real block of 2
        const P t159 = t157 - t158;
        io.out(13, 2, t159);
        const P t160 = t157 + t158;
        io.out(0, 24, t160);
        const P t161 = shuffled<0, 2>(t136, t139);
        const P t162 = shuffled<1, 3>(t136, t139);
        // output stage
        const P t163 = t161 - t162;
        io.out(19, 8, t163);
        const P t164 = t161 + t162;
        io.out(7, 18, t164);
        const P t165 = shuffled<0, 2>(t132, t135);
        const P t166 = shuffled<1, 3>(t132, t135);
        const P t167 = t165 + t166;
        io.out(9, 20, t167);
        const P t168 = t165 - t166;
        io.out(17, 6, t168);
        const P t169 = shuffled<0, 2>(t140, t143);
        const P t170 = shuffled<1, 3>(t140, t143);
        const P t171 = t169 + t170;
        io.out(5, 10, t171);
        const P t172 = t169 - t170;
        io.out(21, 16, t172);
        const P t173 = shuffled<0, 2>(t126, t129);
        const P t174 = shuffled<1, 3>(t126, t129);
        const P t175 = t173 + t174;
        io.out(11, 4, t175);
        const P t176 = t173 - t174;
        io.out(15, 22, t176);
        const P t177 = shuffled<0, 2>(t146, t149);
        const P t178 = shuffled<1, 3>(t146, t149);
        const P t179 = t177 + t178;
        io.out(3, 12, t179);
        const P t180 = t177 - t178;
        io.out(23, 14, t180);
    }
};

}  // namespace zulg
