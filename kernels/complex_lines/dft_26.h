// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 26.
// Complex DFT of 26 points, prime-factor, order 13, 2; two lines of a stage to a register.
// 57 sums, 45 differences, 36 products of registers, which do the 600 steps of the graph, those with
// `scale` included; 33 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<26> {
    static constexpr int steps = 600;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5279915321544383,  // c[2]: Q[1] of 13
        0.2869425954512852,  // c[3]: P[1] of 13
        0.280148395734785,  // c[4]: -Q[5] of 13
        0.5316276774946329,  // c[5]: P[5] of 13
        0.5751407294740031,  // c[6]: Q[3] of 13
        0.1741386011521359,  // c[7]: -P[3] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.42763404682657274,  // c[9]: P[4] of 13
        0.42218506973345193,  // c[10]: -Q[4] of 13
        0.5242266395265821,  // c[11]: P[2] of 13
        0.29376443202296976,  // c[12]: -Q[2] of 13
        0.3004626062886658,  // c[13]: -beta of 13
        0.37034194807495624,  // c[14]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[15]: sin 2 pi 1/3 times -Q[4] of 13
        0.45399358717056765,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.25440746086019866,  // c[17]: sin 2 pi 1/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x14_1 = io.pairs(14, 1);
        const Q x12_25 = io.pairs(12, 25);
        // real block of 2
        const Q t0 = x14_1 + x12_25;
        const Q t1 = x14_1 - x12_25;
        const Q x22_9 = io.pairs(22, 9);
        const Q x4_17 = io.pairs(4, 17);
        // real block of 2
        const Q t2 = x22_9 + x4_17;
        const Q t3 = x22_9 - x4_17;
        const Q x18_5 = io.pairs(18, 5);
        const Q x8_21 = io.pairs(8, 21);
        // real block of 2
        const Q t4 = x18_5 + x8_21;
        const Q t5 = x18_5 - x8_21;
        const Q x6_19 = io.pairs(6, 19);
        const Q x20_7 = io.pairs(20, 7);
        // real block of 2
        const Q t6 = x6_19 + x20_7;
        const Q t7 = x6_19 - x20_7;
        // real block of 2
        const Q t8 = t6 + t2;
        // real block of 2
        const Q t9 = t4 + t0;
        // real block of 3
        const Q t10 = t8 + t9;
        // real block of 2
        const Q t11 = t6 - t2;
        // real block of 2
        const Q t12 = t4 - t0;
        // real block of 3
        const Q t13 = t11 + t12;
        // complex block of 3
        const Q t14 = t7 + t5;
        const Q t15 = t3 + t1;
        const Q t16 = t7 - t5;
        const Q t17 = t3 - t1;
        const Q x2_15 = io.pairs(2, 15);
        const Q x24_11 = io.pairs(24, 11);
        // real block of 2
        const Q t18 = x2_15 + x24_11;
        const Q x16_3 = io.pairs(16, 3);
        const Q x10_23 = io.pairs(10, 23);
        // real block of 2
        const Q t19 = x16_3 + x10_23;
        // real block of 2
        const Q t20 = x2_15 - x24_11;
        // real block of 2
        const Q t21 = x16_3 - x10_23;
        // real block of 2
        const Q t22 = t18 + t19;
        const Q t23 = t18 - t19;
        // real block of 3
        const Q t24 = t8 - t9;
        const Q t25 = t10 + t22;
        const Q t26 = c[0] * t10;
        const Q t27 = t22 - t26;
        // complex block of 3
        const Q t28 = t14 + t20;
        const Q t29 = t15 + t21;
        const Q t30 = c[0] * t14;
        const Q t31 = t20 - t30;
        const Q t32 = c[1] * t17;
        const Q t33 = t31 + t32;
        const Q t34 = t31 - t32;
        const Q t35 = c[0] * t15;
        const Q t36 = t21 - t35;
        const Q t37 = c[1] * t16;
        const Q t38 = t36 - t37;
        const Q t39 = t36 + t37;
        // real block of 3
        const Q t40 = t11 - t12;
        const Q t41 = t13 + t23;
        const Q t42 = c[0] * t13;
        const Q t43 = t23 - t42;
        const Q x0_13 = io.pairs(0, 13);
        // complex block of 13, multiplier 2
        const Q t44 = x0_13 + t25;
        const Q t45 = c[8] * t25;
        const Q t46 = x0_13 - t45;
        const Q t47 = c[9] * t27;
        // real block of 3
        const Q t48 = c[1] * t24;
        // complex block of 13, multiplier 2
        const Q t49 = c[10] * t48;
        const Q t50 = t47 - t49;
        // spectrum block of 3
        const Q t51 = t50 + t46;
        // complex block of 13, multiplier 2
        const Q t52 = c[11] * t43;
        // real block of 3
        const Q t53 = c[1] * t40;
        // complex block of 13, multiplier 2
        const Q t54 = c[12] * t53;
        const Q t55 = t52 + t54;
        const Q t56 = c[13] * t41;
        // spectrum block of 3
        const Q t57 = t55 - t56;
        // spectrum block of 3
        const Q t58 = c[14] * t48;
        const Q t59 = c[15] * t27;
        const Q t60 = t58 + t59;
        // spectrum block of 3
        const Q t61 = c[16] * t53;
        const Q t62 = c[17] * t43;
        const Q t63 = t61 - t62;
        // spectrum block of 3
        const Q t64 = c[0] * t50;
        const Q t65 = t46 - t64;
        const Q t66 = t65 + t60;
        const Q t67 = t65 - t60;
        // spectrum block of 3
        const Q t68 = c[0] * t55;
        const Q t69 = t56 + t68;
        const Q t70 = t63 - t69;
        const Q t71 = t69 + t63;
        // spectrum block of 2
        const Q t72 = t51 + t57;
        const Q t73 = t51 - t57;
        const Q t74 = shuffled<1, 0, 3, 2>(t34);
        // complex block of 13, multiplier 2
        const Q t75 = c[2] * t74;
        const Q t76 = shuffled<1, 0, 3, 2>(t39);
        const Q t77 = c[3] * t76;
        const Q t78 = t75 + t77;
        const Q t79 = shuffled<1, 0, 3, 2>(t33);
        const Q t80 = Q(-c[4], c[4], -c[4], c[4]) * t79;
        const Q t81 = shuffled<1, 0, 3, 2>(t38);
        const Q t82 = Q(c[5], -c[5], c[5], -c[5]) * t81;
        const Q t83 = t80 + t82;
        const Q t84 = flipped<0, 1, 0, 1>(t78);
        // complex block of 3
        const Q t85 = t83 + t84;
        const Q t86 = t83 - t84;
        const Q t87 = shuffled<1, 0, 3, 2>(t28);
        // complex block of 13, multiplier 2
        const Q t88 = c[6] * t87;
        const Q t89 = shuffled<1, 0, 3, 2>(t29);
        const Q t90 = c[7] * t89;
        const Q t91 = t88 + t90;
        const Q t92 = flipped<0, 1, 0, 1>(t91);
        // complex block of 3
        const Q t93 = t85 + t92;
        const Q t94 = Q(-c[0], c[0], -c[0], c[0]) * t85;
        const Q t95 = t91 + t94;
        // complex block of 13, multiplier 2
        const Q t96 = Q(-c[2], c[2], -c[2], c[2]) * t76;
        const Q t97 = Q(c[3], -c[3], c[3], -c[3]) * t74;
        const Q t98 = t96 + t97;
        const Q t99 = c[4] * t81;
        const Q t100 = c[5] * t79;
        const Q t101 = t99 + t100;
        const Q t102 = flipped<0, 1, 0, 1>(t98);
        // complex block of 3
        const Q t103 = t101 + t102;
        const Q t104 = flipped<1, 0, 1, 0>(t101);
        const Q t105 = t104 + t98;
        // complex block of 13, multiplier 2
        const Q t106 = Q(-c[7], c[7], -c[7], c[7]) * t87;
        const Q t107 = Q(c[6], -c[6], c[6], -c[6]) * t89;
        const Q t108 = t106 + t107;
        const Q t109 = flipped<1, 0, 1, 0>(t103);
        // complex block of 3
        const Q t110 = t109 + t108;
        const Q t111 = Q(c[0], -c[0], c[0], -c[0]) * t103;
        const Q t112 = t108 + t111;
        const Q t113 = c[1] * t86;
        const Q t114 = t112 + t113;
        // spectrum block of 2
        const Q t115 = t66 - t70;
        // spectrum block of 2
        const Q t116 = t115 + t114;
        const Q t117 = t115 - t114;
        const P t118 = part<0>(t116);
        const P t119 = part<1>(t116);
        // complex block of 2
        const P t120 = t118 + t119;
        io.pair(12, t120);
        const P t121 = t118 - t119;
        io.pair(25, t121);
        const Q t122 = shuffled<0, 1, 4, 5>(t44, t117);
        const Q t123 = shuffled<2, 3, 6, 7>(t44, t117);
        // complex block of 2
        const Q t124 = t122 + t123;
        const Q t125 = t122 - t123;
        const Q t126 = shuffled<0, 1, 6, 7>(t124, t125);
        io.pairs(0, 1, t126);
        const Q t127 = shuffled<0, 1, 6, 7>(t125, t124);
        io.pairs(13, 14, t127);
        // complex block of 3
        const Q t128 = Q(-c[1], c[1], -c[1], c[1]) * t105;
        const Q t129 = t95 + t128;
        // spectrum block of 2
        const Q t130 = t66 + t70;
        const Q t131 = flipped<0, 1, 0, 1>(t129);
        // spectrum block of 2
        const Q t132 = t130 + t131;
        const Q t133 = t130 - t131;
        // complex block of 3
        const Q t134 = t112 - t113;
        // spectrum block of 2
        const Q t135 = t67 + t71;
        // spectrum block of 2
        const Q t136 = t135 + t134;
        const Q t137 = t135 - t134;
        const Q t138 = shuffled<0, 1, 4, 5>(t136, t132);
        const Q t139 = shuffled<2, 3, 6, 7>(t136, t132);
        // complex block of 2
        const Q t140 = t138 + t139;
        const Q t141 = t138 - t139;
        const Q t142 = shuffled<0, 1, 6, 7>(t140, t141);
        io.pairs(4, 5, t142);
        const Q t143 = shuffled<0, 1, 6, 7>(t141, t140);
        io.pairs(17, 18, t143);
        const Q t144 = shuffled<0, 1, 4, 5>(t133, t137);
        const Q t145 = shuffled<2, 3, 6, 7>(t133, t137);
        // complex block of 2
        const Q t146 = t144 + t145;
        const Q t147 = t144 - t145;
        const Q t148 = shuffled<0, 1, 6, 7>(t146, t147);
        io.pairs(8, 9, t148);
        const Q t149 = shuffled<0, 1, 6, 7>(t147, t146);
        io.pairs(21, 22, t149);
        const Q t150 = shuffled<0, 5, 2, 7>(t95, t128);
        const Q t151 = shuffled<0, 5, 2, 7>(t128, t95);
        // complex block of 3
        const Q t152 = t150 - t151;
        // spectrum block of 2
        const Q t153 = t67 - t71;
        // spectrum block of 2
        const Q t154 = t153 + t152;
        const Q t155 = t153 - t152;
        const Q t156 = shuffled<0, 1, 4, 5>(t154, t155);
        const Q t157 = shuffled<2, 3, 6, 7>(t154, t155);
        // complex block of 2
        const Q t158 = t156 + t157;
        const Q t159 = t156 - t157;
        const Q t160 = shuffled<0, 1, 6, 7>(t158, t159);
        io.pairs(6, 7, t160);
        const Q t161 = shuffled<0, 1, 6, 7>(t159, t158);
        io.pairs(19, 20, t161);
        // spectrum block of 2
        const Q t162 = t72 + t93;
        // spectrum block of 2
        const Q t163 = t73 - t110;
        const Q t164 = shuffled<0, 1, 4, 5>(t162, t163);
        const Q t165 = shuffled<2, 3, 6, 7>(t162, t163);
        // complex block of 2
        const Q t166 = t164 + t165;
        const Q t167 = t164 - t165;
        const Q t168 = shuffled<0, 1, 6, 7>(t166, t167);
        io.pairs(2, 3, t168);
        const Q t169 = shuffled<0, 1, 6, 7>(t167, t166);
        io.pairs(15, 16, t169);
        // spectrum block of 2
        const Q t170 = t72 - t93;
        // spectrum block of 2
        const Q t171 = t73 + t110;
        const Q t172 = shuffled<0, 1, 4, 5>(t171, t170);
        const Q t173 = shuffled<2, 3, 6, 7>(t171, t170);
        // complex block of 2
        const Q t174 = t172 + t173;
        const Q t175 = t172 - t173;
        const Q t176 = shuffled<0, 1, 6, 7>(t174, t175);
        io.pairs(10, 11, t176);
        const Q t177 = shuffled<0, 1, 6, 7>(t175, t174);
        io.pairs(23, 24, t177);
    }
};

}  // namespace zulg
