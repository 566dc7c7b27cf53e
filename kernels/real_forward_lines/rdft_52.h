// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 52.
// Forward DFT of 52 real points, prime-factor 13, 4; up to four lanes to a register.
// 53 sums, 53 differences, 41 products of registers, which do the 630 steps of the graph, those with
// `scale` included; 33 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<52> {
    static constexpr int steps = 630;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6007253775544544,  // c[2]: -Q[1] of 13
        0.015496188988565054,  // c[3]: -P[1] of 13
        0.3203288761978803,  // c[4]: -P[5] of 13
        0.5084294662830964,  // c[5]: -Q[5] of 13
        0.007705858903092426,  // c[6]: P[2] of 13
        0.6008758031820526,  // c[7]: -Q[2] of 13
        0.5794400189009605,  // c[8]: -P[4] of 13
        0.15924941320823024,  // c[9]: -Q[4] of 13
        0.5751407294740031,  // c[10]: -P[3] of 13
        0.1741386011521359,  // c[11]: Q[3] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x40_1_14_27 = io.in(40, 1, 14, 27);
        const Q x16_29_42_3 = io.in(16, 29, 42, 3);
        // real block of 3
        const Q t0 = x40_1_14_27 + x16_29_42_3;
        const Q t1 = x40_1_14_27 - x16_29_42_3;
        const Q x12_25_38_51 = io.in(12, 25, 38, 51);
        const Q x36_49_10_23 = io.in(36, 49, 10, 23);
        // real block of 3
        const Q t2 = x12_25_38_51 + x36_49_10_23;
        const Q t3 = x12_25_38_51 - x36_49_10_23;
        const Q x4_17_30_43 = io.in(4, 17, 30, 43);
        const Q t4 = t2 + x4_17_30_43;
        const Q t5 = c[0] * t2;
        const Q t6 = x4_17_30_43 - t5;
        // real block of 3
        const Q t7 = c[1] * t1;
        // real block of 3
        const Q t8 = c[1] * t3;
        // complex block of 2
        const Q t9 = t7 - t8;
        const Q x48_9_22_35 = io.in(48, 9, 22, 35);
        // real block of 3
        const Q t10 = t0 + x48_9_22_35;
        const Q t11 = c[0] * t0;
        const Q t12 = x48_9_22_35 - t11;
        const Q x44_5_18_31 = io.in(44, 5, 18, 31);
        const Q x28_41_2_15 = io.in(28, 41, 2, 15);
        // real block of 3
        const Q t13 = x44_5_18_31 + x28_41_2_15;
        const Q t14 = x44_5_18_31 - x28_41_2_15;
        const Q x8_21_34_47 = io.in(8, 21, 34, 47);
        const Q x24_37_50_11 = io.in(24, 37, 50, 11);
        // real block of 3
        const Q t15 = x8_21_34_47 + x24_37_50_11;
        const Q t16 = x8_21_34_47 - x24_37_50_11;
        const Q x32_45_6_19 = io.in(32, 45, 6, 19);
        // real block of 3
        const Q t17 = t13 + x32_45_6_19;
        const Q t18 = c[0] * t13;
        const Q t19 = x32_45_6_19 - t18;
        // real block of 3
        const Q t20 = c[1] * t16;
        // real block of 3
        const Q t21 = c[1] * t14;
        // complex block of 2
        const Q t22 = t20 - t21;
        const Q x20_33_46_7 = io.in(20, 33, 46, 7);
        // real block of 3
        const Q t23 = t15 + x20_33_46_7;
        const Q t24 = c[0] * t15;
        const Q t25 = x20_33_46_7 - t24;
        // real block of 2
        const Q t26 = t4 + t10;
        // real block of 2
        const Q t27 = t17 + t23;
        // real block of 2
        const Q t28 = t26 + t27;
        const Q t29 = t26 - t27;
        // real block of 2
        const Q t30 = t4 - t10;
        // real block of 2
        const Q t31 = t17 - t23;
        // complex block of 2
        const Q t32 = t6 + t12;
        // complex block of 2
        const Q t33 = t19 + t25;
        // complex block of 2
        const Q t34 = t32 + t33;
        const Q t35 = t32 - t33;
        // complex block of 2
        const Q t36 = t8 + t7;
        // complex block of 2
        const Q t37 = t21 + t20;
        // complex block of 2
        const Q t38 = t36 + t37;
        const Q t39 = t37 - t36;
        // complex block of 2
        const Q t40 = t6 - t12;
        // complex block of 2
        const Q t41 = t40 - t22;
        const Q t42 = t40 + t22;
        // complex block of 2
        const Q t43 = t19 - t25;
        // complex block of 2
        const Q t44 = t9 + t43;
        const Q t45 = t9 - t43;
        // real block of 13, multiplier 4
        const Q t46 = c[2] * t45;
        const Q t47 = c[3] * t42;
        const Q t48 = t46 - t47;
        const Q t49 = c[3] * t45;
        const Q t50 = c[2] * t42;
        const Q t51 = t49 + t50;
        const Q t52 = c[4] * t41;
        const Q t53 = c[5] * t44;
        const Q t54 = t52 + t53;
        const Q t55 = c[4] * t44;
        const Q t56 = c[5] * t41;
        const Q t57 = t55 - t56;
        const Q x0_13_26_39 = io.in(0, 13, 26, 39);
        const Q t58 = x0_13_26_39 + t28;
        const P t59 = part<0>(t58);
        const P t60 = part<1>(t58);
        // real block of 2
        const P t61 = t59 + t60;
        const P t62 = shuffled<0, 3>(t59, t60);
        const P t63 = shuffled<0, 3>(t60, t59);
        const P t64 = t62 - t63;
        io.pair(13, t64);
        const V t65 = part<0>(t61);
        const V t66 = part<1>(t61);
        // real block of 2
        const V t67 = t65 + t66;
        io.re(0, t67);
        const V t68 = t65 - t66;
        io.re(26, t68);
        // real block of 13, multiplier 4
        const Q t69 = c[12] * t28;
        const Q t70 = x0_13_26_39 - t69;
        const Q t71 = c[13] * t29;
        // spectrum block of 2
        const Q t72 = t70 + t71;
        const Q t73 = t70 - t71;
        // real block of 13, multiplier 4
        const Q t74 = c[6] * t35;
        const Q t75 = c[7] * t39;
        const Q t76 = t74 - t75;
        const Q t77 = c[8] * t34;
        const Q t78 = c[9] * t38;
        const Q t79 = t77 + t78;
        // complex block of 2
        const Q t80 = t76 - t79;
        const Q t81 = t79 + t76;
        // spectrum block of 3, multiplier 2
        const Q t82 = t80 + t72;
        const Q t83 = c[0] * t80;
        const Q t84 = t72 - t83;
        // spectrum block of 3, multiplier 2
        const Q t85 = t73 - t81;
        const Q t86 = c[0] * t81;
        const Q t87 = t86 + t73;
        // real block of 13, multiplier 4
        const Q t88 = c[6] * t39;
        const Q t89 = c[7] * t35;
        const Q t90 = t88 + t89;
        const Q t91 = c[8] * t38;
        const Q t92 = c[9] * t34;
        const Q t93 = t91 - t92;
        // complex block of 2
        const Q t94 = t93 + t90;
        const Q t95 = t93 - t90;
        // real block of 13, multiplier 4
        const Q t96 = c[10] * t30;
        const Q t97 = c[11] * t31;
        const Q t98 = t96 + t97;
        const Q t99 = c[11] * t30;
        const Q t100 = c[10] * t31;
        const Q t101 = t99 - t100;
        // complex block of 2
        const Q t102 = t57 - t51;
        // spectrum block of 3, multiplier 2
        const Q t103 = t102 + t101;
        const Q t104 = c[0] * t102;
        const Q t105 = t101 - t104;
        // complex block of 2
        const Q t106 = t48 + t54;
        const Q t107 = t54 - t48;
        const Q t108 = t51 + t57;
        // mirrored skew block of 6
        const Q t109 = c[1] * t108;
        const Q t110 = c[0] * t107;
        const Q t111 = t109 + t110;
        // spectrum block of 3, multiplier 2
        const Q t112 = c[14] * t107;
        const Q t113 = c[15] * t108;
        const Q t114 = t112 - t113;
        // spectrum block of 3, multiplier 2
        const Q t115 = c[1] * t94;
        const Q t116 = t84 - t115;
        const Q t117 = t84 + t115;
        // spectrum block of 3, multiplier 2
        const Q t118 = c[1] * t106;
        const Q t119 = t105 - t118;
        const Q t120 = t105 + t118;
        const Q t121 = shuffled<0, 4, 2, 6>(t117, t119);
        const Q t122 = shuffled<0, 4, 2, 6>(t116, t120);
        const Q t123 = shuffled<0, 1, 4, 5>(t121, t122);
        const Q t124 = shuffled<2, 3, 6, 7>(t121, t122);
        // complex block of 2
        const Q t125 = t123 + t124;
        const Q t126 = flipped<0, 0, 0, 1>(t123);
        const Q t127 = flipped<0, 0, 0, 1>(t124);
        const Q t128 = t126 - t127;
        const Q t129 = shuffled<1, 5, 3, 7>(t117, t119);
        const Q t130 = shuffled<1, 5, 3, 7>(t116, t120);
        const Q t131 = shuffled<0, 1, 4, 5>(t129, t130);
        const Q t132 = shuffled<2, 3, 6, 7>(t129, t130);
        // complex block of 2
        const Q t133 = t131 + t132;
        const Q t134 = flipped<0, 0, 0, 1>(t131);
        const Q t135 = flipped<0, 0, 0, 1>(t132);
        const Q t136 = t134 - t135;
        // complex block of 2
        const Q t137 = t125 + t133;
        io.pairs(12, 16, negated<0, 0, 0, 1>(t137));
        const Q t138 = flipped<0, 0, 0, 1>(t125);
        const Q t139 = flipped<0, 0, 0, 1>(t133);
        const Q t140 = t138 - t139;
        io.pairs(14, 10, negated<0, 1, 0, 1>(t140));
        const Q t141 = shuffled<1, 0, 3, 2>(t136);
        const Q t142 = flipped<0, 1, 0, 1>(t141);
        // complex block of 2
        const Q t143 = t128 + t142;
        io.pairs(25, 23, negated<0, 0, 0, 1>(t143));
        const Q t144 = t128 - t142;
        io.pairs(1, 3, negated<0, 1, 0, 0>(t144));
        // spectrum block of 3, multiplier 2
        const Q t145 = c[1] * t95;
        const Q t146 = t87 - t145;
        const Q t147 = t87 + t145;
        // spectrum block of 3, multiplier 2
        const Q t148 = t111 + t98;
        const Q t149 = c[0] * t111;
        const Q t150 = t149 - t98;
        const Q t151 = t150 + t114;
        const Q t152 = t150 - t114;
        const Q t153 = shuffled<0, 4, 2, 6>(t82, t103);
        const Q t154 = shuffled<0, 4, 2, 6>(t147, t152);
        const Q t155 = shuffled<0, 1, 4, 5>(t153, t154);
        const Q t156 = shuffled<2, 3, 6, 7>(t153, t154);
        // complex block of 2
        const Q t157 = t155 + t156;
        const Q t158 = shuffled<1, 5, 3, 7>(t82, t103);
        const Q t159 = shuffled<1, 5, 3, 7>(t147, t152);
        const Q t160 = shuffled<0, 1, 4, 5>(t158, t159);
        const Q t161 = shuffled<2, 3, 6, 7>(t158, t159);
        // complex block of 2
        const Q t162 = t160 + t161;
        // complex block of 2
        const Q t163 = t157 + t162;
        io.pairs(4, 8, negated<0, 0, 0, 1>(t163));
        const Q t164 = shuffled<0, 5, 2, 7>(t157, t162);
        const Q t165 = shuffled<0, 5, 2, 7>(t162, t157);
        const Q t166 = t164 - t165;
        io.pairs(22, 18, negated<0, 0, 0, 1>(t166));
        const Q t167 = flipped<0, 0, 0, 1>(t155);
        const Q t168 = flipped<0, 0, 0, 1>(t156);
        // complex block of 2
        const Q t169 = t167 - t168;
        const Q t170 = flipped<0, 0, 0, 1>(t160);
        const Q t171 = flipped<0, 0, 0, 1>(t161);
        // complex block of 2
        const Q t172 = t170 - t171;
        const Q t173 = shuffled<1, 0, 3, 2>(t172);
        const Q t174 = flipped<0, 1, 0, 1>(t173);
        // complex block of 2
        const Q t175 = t169 + t174;
        io.pairs(17, 21, t175);
        const Q t176 = t169 - t174;
        io.pairs(9, 5, negated<0, 1, 0, 1>(t176));
        const Q t177 = shuffled<0, 4, 2, 6>(t85, t151);
        const Q t178 = shuffled<0, 4, 2, 6>(t146, t148);
        const Q t179 = shuffled<0, 1, 4, 5>(t177, t178);
        const Q t180 = shuffled<2, 3, 6, 7>(t177, t178);
        // complex block of 2
        const Q t181 = t179 + t180;
        const Q t182 = shuffled<1, 5, 3, 7>(t85, t151);
        const Q t183 = shuffled<1, 5, 3, 7>(t146, t148);
        const Q t184 = shuffled<0, 1, 4, 5>(t182, t183);
        const Q t185 = shuffled<2, 3, 6, 7>(t182, t183);
        // complex block of 2
        const Q t186 = t184 + t185;
        // complex block of 2
        const Q t187 = t181 + t186;
        io.pairs(20, 24, negated<0, 1, 0, 0>(t187));
        const Q t188 = flipped<0, 1, 0, 0>(t181);
        const Q t189 = flipped<0, 1, 0, 0>(t186);
        const Q t190 = t188 - t189;
        io.pairs(6, 2, negated<0, 1, 0, 1>(t190));
        const Q t191 = flipped<0, 1, 0, 0>(t179);
        const Q t192 = flipped<0, 1, 0, 0>(t180);
        // complex block of 2
        const Q t193 = t191 - t192;
        const Q t194 = flipped<0, 1, 0, 0>(t184);
        const Q t195 = flipped<0, 1, 0, 0>(t185);
        // complex block of 2
        const Q t196 = t194 - t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t196);
        const Q t198 = flipped<0, 1, 0, 1>(t197);
        // complex block of 2
        const Q t199 = t193 + t198;
        io.pairs(19, 15, negated<0, 1, 0, 1>(t199));
        const Q t200 = t193 - t198;
        io.pairs(7, 11, t200);
    }
};

}  // namespace zulg
