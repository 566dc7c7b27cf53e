// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 44.
// Inverse DFT to 44 real points, prime-factor 4, 11; up to four lanes to a register.
// 52 sums, 40 differences, 61 products of registers, which do the 644 steps of the graph, those with
// `scale` included; 31 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<44> {
    static constexpr int steps = 644;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 3/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5450828424811972,  // c[5]: P[1] of 11
        0.3780009190896476,  // c[6]: -Q[1] of 11
        0.5539145271232301,  // c[7]: Q[4] of 11
        0.3649365652299704,  // c[8]: -P[4] of 11
        0.6355539395974166,  // c[9]: -Q[2] of 11
        0.18992416871531467,  // c[10]: -P[2] of 11
        0.6617220446385197,  // c[11]: P[3] of 11
        0.046086176229070706,  // c[12]: -Q[3] of 11
        0.1,  // c[13]: 1/10
        0.33166247903553997,  // c[14]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const V x0r = io.re(0);
        const V x22r = io.re(22);
        // spectrum block of 2
        const V t0 = x0r + x22r;
        const V t1 = x0r - x22r;
        const P t2 = joined(t0, t1);
        const P x11 = io.pair(11);
        // doubled bins
        const P t3 = c[0] * x11;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const Q x12_16 = io.pairs(12, 16);
        // doubled bins
        const Q t6 = c[0] * x12_16;
        const Q x10_6 = io.pairs(10, 6);
        const Q t7 = Q(c[0], -c[0], c[0], -c[0]) * x10_6;
        // complex block of 2
        const Q t8 = t6 + t7;
        const Q x1_5 = io.pairs(1, 5);
        // doubled bins
        const Q t9 = c[0] * x1_5;
        const Q x21_17 = io.pairs(21, 17);
        const Q t10 = Q(c[0], -c[0], c[0], -c[0]) * x21_17;
        // complex block of 2
        const Q t11 = t9 + t10;
        // complex block of 2
        const Q t12 = t8 + t11;
        const Q t13 = t8 - t11;
        // complex block of 2
        const Q t14 = t6 - t7;
        const Q t15 = flipped<0, 1, 0, 1>(t10);
        const Q t16 = flipped<1, 0, 1, 0>(t9);
        // complex block of 2
        const Q t17 = t15 + t16;
        const Q t18 = shuffled<1, 0, 3, 2>(t17);
        // complex block of 2
        const Q t19 = t14 - t18;
        const Q t20 = t14 + t18;
        const Q x2_9 = io.pairs(2, 9);
        // doubled bins
        const Q t21 = Q(c[0], -c[0], c[0], c[0]) * x2_9;
        const Q x20_13 = io.pairs(20, 13);
        const Q t22 = Q(c[0], c[0], c[0], -c[0]) * x20_13;
        // complex block of 2
        const Q t23 = t21 + t22;
        const Q t24 = flipped<0, 0, 0, 1>(t22);
        const Q t25 = flipped<1, 1, 1, 0>(t21);
        const Q t26 = t24 + t25;
        const Q t27 = shuffled<0, 1, 4, 5>(t23, t26);
        const Q t28 = shuffled<1, 0, 3, 2>(t26);
        const Q t29 = shuffled<2, 3, 6, 7>(t23, t28);
        const Q t30 = flipped<0, 0, 1, 1>(t29);
        // complex block of 2
        const Q t31 = t27 + t30;
        const Q t32 = t27 - t30;
        const Q x4_8 = io.pairs(4, 8);
        // doubled bins
        const Q t33 = c[0] * x4_8;
        const Q x18_14 = io.pairs(18, 14);
        const Q t34 = Q(c[0], -c[0], c[0], -c[0]) * x18_14;
        // complex block of 2
        const Q t35 = t33 + t34;
        const Q x15_19 = io.pairs(15, 19);
        // doubled bins
        const Q t36 = c[0] * x15_19;
        const Q x7_3 = io.pairs(7, 3);
        const Q t37 = Q(c[0], -c[0], c[0], -c[0]) * x7_3;
        // complex block of 2
        const Q t38 = t36 + t37;
        // complex block of 2
        const Q t39 = t35 + t38;
        const Q t40 = t35 - t38;
        // complex block of 2
        const Q t41 = t33 - t34;
        // complex block of 2
        const Q t42 = t36 - t37;
        const Q t43 = shuffled<1, 0, 3, 2>(t42);
        const Q t44 = flipped<0, 1, 0, 1>(t43);
        // complex block of 2
        const Q t45 = t41 + t44;
        const Q t46 = t41 - t44;
        const Q t47 = shuffled<0, 4, 2, 6>(t39, t45);
        const Q t48 = shuffled<0, 4, 2, 6>(t40, t46);
        const Q t49 = shuffled<2, 3, 6, 7>(t47, t48);
        const P t50 = part<0>(t31);
        const P t51 = part<1>(t31);
        const P t52 = shuffled<0, 2>(t50, t51);
        const P t53 = part<0>(t32);
        const P t54 = part<1>(t32);
        const P t55 = shuffled<0, 2>(t53, t54);
        const Q t56 = joined(t52, t55);
        // real block of 5
        const Q t57 = t49 + t56;
        const Q t58 = shuffled<0, 4, 2, 6>(t12, t19);
        const Q t59 = shuffled<0, 4, 2, 6>(t13, t20);
        const Q t60 = shuffled<0, 1, 4, 5>(t58, t59);
        const Q t61 = shuffled<2, 3, 6, 7>(t58, t59);
        const Q t62 = t60 + t61;
        const Q t63 = t57 + t62;
        const Q t64 = shuffled<0, 1, 4, 5>(t47, t48);
        const Q t65 = t63 + t64;
        const Q t66 = c[1] * t57;
        const Q t67 = c[2] * t62;
        const Q t68 = t66 - t67;
        const Q t69 = t68 + t64;
        const Q t70 = c[2] * t57;
        const Q t71 = t64 - t70;
        const Q t72 = c[1] * t62;
        const Q t73 = t71 + t72;
        const Q t74 = t49 - t56;
        const Q t75 = t60 - t61;
        const Q t76 = c[3] * t75;
        const Q t77 = c[4] * t74;
        const Q t78 = t76 - t77;
        const Q t79 = c[3] * t74;
        const Q t80 = c[4] * t75;
        const Q t81 = t79 + t80;
        const P t82 = shuffled<1, 3>(t50, t51);
        const P t83 = shuffled<1, 3>(t53, t54);
        const Q t84 = joined(t82, t83);
        const Q t85 = shuffled<1, 5, 3, 7>(t39, t45);
        const Q t86 = shuffled<1, 5, 3, 7>(t40, t46);
        const Q t87 = shuffled<2, 3, 6, 7>(t85, t86);
        // real block of 5
        const Q t88 = t84 - t87;
        const Q t89 = shuffled<1, 5, 3, 7>(t12, t19);
        const Q t90 = shuffled<1, 5, 3, 7>(t13, t20);
        const Q t91 = shuffled<0, 1, 4, 5>(t89, t90);
        const Q t92 = shuffled<2, 3, 6, 7>(t89, t90);
        const Q t93 = t91 + t92;
        const Q t94 = t88 + t93;
        const Q t95 = c[1] * t88;
        const Q t96 = c[2] * t93;
        const Q t97 = t95 - t96;
        const Q t98 = shuffled<0, 1, 4, 5>(t85, t86);
        const Q t99 = t97 + t98;
        const Q t100 = c[2] * t88;
        const Q t101 = t98 - t100;
        const Q t102 = c[1] * t93;
        const Q t103 = t101 + t102;
        const Q t104 = t87 + t84;
        const Q t105 = t91 - t92;
        const Q t106 = c[4] * t104;
        const Q t107 = c[3] * t105;
        const Q t108 = t106 + t107;
        const Q t109 = c[3] * t104;
        const Q t110 = c[4] * t105;
        const Q t111 = t109 - t110;
        const Q t112 = t94 + t98;
        const Q t113 = joined(t4, t5);
        // spectrum block of 11, multiplier 4
        const Q t114 = c[13] * t65;
        const Q t115 = t113 - t114;
        const Q t116 = c[14] * t112;
        // spectrum block of 2
        const Q t117 = t115 - t116;
        const Q t118 = t115 + t116;
        // spectrum block of 11, multiplier 4
        const Q t119 = c[5] * t111;
        const Q t120 = c[6] * t103;
        const Q t121 = t119 - t120;
        const Q t122 = c[7] * t81;
        const Q t123 = c[8] * t73;
        const Q t124 = t122 - t123;
        // complex block of 2
        const Q t125 = t124 + t121;
        const Q t126 = t124 - t121;
        // spectrum block of 11, multiplier 4
        const Q t127 = c[6] * t111;
        const Q t128 = c[5] * t103;
        const Q t129 = t127 + t128;
        const Q t130 = c[8] * t81;
        const Q t131 = c[7] * t73;
        const Q t132 = t130 + t131;
        // complex block of 2
        const Q t133 = t132 - t129;
        const Q t134 = t132 + t129;
        // spectrum block of 11, multiplier 4
        const Q t135 = c[9] * t78;
        const Q t136 = c[10] * t69;
        const Q t137 = t135 - t136;
        const Q t138 = c[11] * t108;
        const Q t139 = c[12] * t99;
        const Q t140 = t138 - t139;
        // complex block of 2
        const Q t141 = t137 + t140;
        const Q t142 = t137 - t140;
        // spectrum block of 11, multiplier 4
        const Q t143 = c[10] * t78;
        const Q t144 = c[9] * t69;
        const Q t145 = t143 + t144;
        const Q t146 = c[12] * t108;
        const Q t147 = c[11] * t99;
        const Q t148 = t146 + t147;
        // complex block of 2
        const Q t149 = t145 + t148;
        const Q t150 = t148 - t145;
        // spectrum block of 5, multiplier 2
        const Q t151 = t141 + t125;
        const Q t152 = t151 + t117;
        io.out(4, 15, 26, 37, t152);
        const Q t153 = c[1] * t141;
        const Q t154 = c[2] * t125;
        const Q t155 = t153 - t154;
        const Q t156 = t155 + t117;
        const Q t157 = c[3] * t133;
        const Q t158 = c[4] * t149;
        const Q t159 = t157 - t158;
        const Q t160 = t156 - t159;
        io.out(20, 31, 42, 9, t160);
        const Q t161 = t156 + t159;
        io.out(36, 3, 14, 25, t161);
        const Q t162 = c[2] * t141;
        const Q t163 = t117 - t162;
        const Q t164 = c[1] * t125;
        const Q t165 = t163 + t164;
        const Q t166 = c[3] * t149;
        const Q t167 = c[4] * t133;
        const Q t168 = t166 + t167;
        const Q t169 = t165 + t168;
        io.out(12, 23, 34, 1, t169);
        const Q t170 = t165 - t168;
        io.out(16, 27, 38, 5, t170);
        // spectrum block of 5, multiplier 2
        const Q t171 = t142 + t126;
        const Q t172 = t171 + t118;
        io.out(40, 7, 18, 29, t172);
        const Q t173 = c[1] * t142;
        const Q t174 = c[2] * t126;
        const Q t175 = t173 - t174;
        const Q t176 = t175 + t118;
        const Q t177 = c[4] * t150;
        const Q t178 = c[3] * t134;
        const Q t179 = t177 + t178;
        const Q t180 = t176 - t179;
        io.out(24, 35, 2, 13, t180);
        const Q t181 = t176 + t179;
        io.out(8, 19, 30, 41, t181);
        const Q t182 = c[2] * t142;
        const Q t183 = t118 - t182;
        const Q t184 = c[1] * t126;
        const Q t185 = t183 + t184;
        const Q t186 = c[3] * t150;
        const Q t187 = c[4] * t134;
        const Q t188 = t186 - t187;
        const Q t189 = t185 - t188;
        io.out(32, 43, 10, 21, t189);
        const Q t190 = t185 + t188;
        io.out(28, 39, 6, 17, t190);
        // spectrum block of 11, multiplier 4
        const Q t191 = t113 + t65;
        io.out(0, 11, 22, 33, t191);
    }
};

}  // namespace zulg
