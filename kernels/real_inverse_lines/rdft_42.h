// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 42.
// Inverse DFT to 42 real points, prime-factor 2, 3, 7; up to four lanes to a register.
// 43 sums, 39 differences, 54 products of registers, which do the 484 steps of the graph, those with
// `scale` included; 51 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<42> {
    static constexpr int steps = 484;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.9009688679024191,  // c[6]: -cos 2 pi 3/7
        0.5,  // c[7]: -cos 2 pi 1/3
        0.8660254037844386,  // c[8]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const V x0r = io.re(0);
        const V x21r = io.re(21);
        // spectrum block of 2
        const V t0 = x0r + x21r;
        const V t1 = x0r - x21r;
        const Q x18_20 = io.pairs(18, 20);
        // doubled bins
        const Q t2 = c[0] * x18_20;
        const Q x3_1 = io.pairs(3, 1);
        const Q t3 = Q(c[0], -c[0], c[0], -c[0]) * x3_1;
        // complex block of 2
        const Q t4 = t2 + t3;
        const Q t5 = t2 - t3;
        const Q x2_4 = io.pairs(2, 4);
        // doubled bins
        const Q t6 = c[0] * x2_4;
        const Q x19_17 = io.pairs(19, 17);
        const Q t7 = Q(c[0], -c[0], c[0], -c[0]) * x19_17;
        // complex block of 2
        const Q t8 = t6 + t7;
        const Q t9 = t6 - t7;
        const Q x14_16 = io.pairs(14, 16);
        // doubled bins
        const Q t10 = c[0] * x14_16;
        const Q x7_5 = io.pairs(7, 5);
        const Q t11 = Q(c[0], -c[0], c[0], -c[0]) * x7_5;
        // complex block of 2
        const Q t12 = t10 + t11;
        const Q t13 = t10 - t11;
        const Q x6_8 = io.pairs(6, 8);
        // doubled bins
        const Q t14 = c[0] * x6_8;
        const Q x15_13 = io.pairs(15, 13);
        const Q t15 = Q(c[0], -c[0], c[0], -c[0]) * x15_13;
        // complex block of 2
        const Q t16 = t14 + t15;
        const Q t17 = t14 - t15;
        const Q x10_12 = io.pairs(10, 12);
        // doubled bins
        const Q t18 = c[0] * x10_12;
        const Q x11_9 = io.pairs(11, 9);
        const Q t19 = Q(c[0], -c[0], c[0], -c[0]) * x11_9;
        // complex block of 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        const P t22 = part<0>(t12);
        const P t23 = part<0>(t13);
        const P t24 = shuffled<0, 2>(t22, t23);
        const P t25 = joined(t0, t1);
        // spectrum block of 3, multiplier 2
        const P t26 = t24 + t25;
        const P t27 = c[7] * t24;
        const P t28 = t25 - t27;
        const Q t29 = shuffled<2, 3, 6, 7>(t4, t5);
        const Q t30 = shuffled<2, 3, 6, 7>(t16, t17);
        const Q t31 = flipped<0, 1, 0, 1>(t30);
        // complex block of 3, multiplier 2
        const Q t32 = t29 + t31;
        const Q t33 = shuffled<0, 1, 4, 5>(t16, t17);
        const Q t34 = t32 + t33;
        const Q t35 = c[7] * t32;
        const Q t36 = t33 - t35;
        const Q t37 = t29 - t31;
        const Q t38 = shuffled<2, 3, 6, 7>(t12, t13);
        const Q t39 = shuffled<0, 1, 4, 5>(t8, t9);
        // complex block of 3, multiplier 2
        const Q t40 = t38 + t39;
        const Q t41 = shuffled<2, 3, 6, 7>(t20, t21);
        const Q t42 = flipped<0, 1, 0, 1>(t40);
        const Q t43 = t41 + t42;
        const Q t44 = Q(-c[7], c[7], -c[7], c[7]) * t40;
        const Q t45 = t44 + t41;
        const Q t46 = shuffled<0, 5, 2, 7>(t38, t39);
        const Q t47 = shuffled<0, 5, 2, 7>(t39, t38);
        const Q t48 = t46 - t47;
        const Q t49 = shuffled<2, 3, 6, 7>(t8, t9);
        const Q t50 = shuffled<0, 1, 4, 5>(t20, t21);
        const Q t51 = flipped<0, 1, 0, 1>(t50);
        // complex block of 3, multiplier 2
        const Q t52 = t49 + t51;
        const Q t53 = shuffled<0, 1, 4, 5>(t4, t5);
        const Q t54 = t52 + t53;
        const Q t55 = c[7] * t52;
        const Q t56 = t53 - t55;
        const Q t57 = flipped<1, 0, 1, 0>(t49);
        const Q t58 = t50 + t57;
        const P t59 = shuffled<1, 3>(t22, t23);
        // spectrum block of 3, multiplier 2
        const P t60 = c[8] * t59;
        const P t61 = t28 - t60;
        // complex block of 3, multiplier 2
        const Q t62 = Q(c[8], -c[8], c[8], -c[8]) * t37;
        const Q t63 = shuffled<1, 0, 3, 2>(t62);
        const Q t64 = t36 + t63;
        // complex block of 3, multiplier 2
        const Q t65 = Q(c[8], -c[8], c[8], -c[8]) * t48;
        const Q t66 = shuffled<1, 0, 3, 2>(t65);
        const Q t67 = t45 + t66;
        const P t68 = part<0>(t64);
        const P t69 = part<1>(t64);
        const P t70 = shuffled<0, 2>(t68, t69);
        const P t71 = part<0>(t67);
        const P t72 = part<1>(t67);
        const P t73 = shuffled<0, 2>(t71, t72);
        // spectrum block of 7, multiplier 6
        const P t74 = t70 + t73;
        const P t75 = c[1] * t70;
        const P t76 = c[2] * t73;
        const P t77 = t75 - t76;
        const P t78 = shuffled<1, 3>(t68, t69);
        const P t79 = c[3] * t78;
        const P t80 = shuffled<1, 3>(t71, t72);
        const P t81 = c[4] * t80;
        const P t82 = t79 + t81;
        const P t83 = c[2] * t70;
        const P t84 = t61 - t83;
        const P t85 = c[4] * t78;
        const P t86 = c[5] * t80;
        const P t87 = t85 - t86;
        const P t88 = c[6] * t70;
        const P t89 = t61 - t88;
        const P t90 = c[5] * t78;
        const P t91 = c[3] * t80;
        const P t92 = t90 - t91;
        // complex block of 3, multiplier 2
        const Q t93 = c[8] * t58;
        const Q t94 = shuffled<1, 0, 3, 2>(t93);
        const Q t95 = t56 + t94;
        const P t96 = part<0>(t95);
        const P t97 = part<1>(t95);
        const P t98 = shuffled<0, 2>(t96, t97);
        // spectrum block of 7, multiplier 6
        const P t99 = t74 + t98;
        const P t100 = t99 + t61;
        io.out(28, 7, t100);
        const P t101 = c[6] * t98;
        const P t102 = t77 - t101;
        const P t103 = t102 + t61;
        const P t104 = shuffled<1, 3>(t96, t97);
        const P t105 = c[5] * t104;
        const P t106 = t82 + t105;
        const P t107 = t103 - t106;
        io.out(22, 1, t107);
        const P t108 = t103 + t106;
        io.out(34, 13, t108);
        const P t109 = c[6] * t73;
        const P t110 = t84 - t109;
        const P t111 = c[1] * t98;
        const P t112 = t110 + t111;
        const P t113 = c[3] * t104;
        const P t114 = t87 - t113;
        const P t115 = t112 - t114;
        io.out(16, 37, t115);
        const P t116 = t112 + t114;
        io.out(40, 19, t116);
        const P t117 = c[1] * t73;
        const P t118 = t89 + t117;
        const P t119 = c[2] * t98;
        const P t120 = t118 - t119;
        const P t121 = c[4] * t104;
        const P t122 = t92 + t121;
        const P t123 = t120 - t122;
        io.out(10, 31, t123);
        const P t124 = t120 + t122;
        io.out(4, 25, t124);
        // spectrum block of 3, multiplier 2
        const P t125 = t28 + t60;
        // complex block of 3, multiplier 2
        const Q t126 = t36 - t63;
        // complex block of 3, multiplier 2
        const Q t127 = t45 - t66;
        const P t128 = part<0>(t34);
        const P t129 = part<1>(t34);
        const P t130 = shuffled<0, 2>(t128, t129);
        const P t131 = part<0>(t126);
        const P t132 = part<1>(t126);
        const P t133 = shuffled<0, 2>(t131, t132);
        const Q t134 = joined(t130, t133);
        const P t135 = part<0>(t43);
        const P t136 = part<1>(t43);
        const P t137 = shuffled<0, 2>(t135, t136);
        const P t138 = part<0>(t127);
        const P t139 = part<1>(t127);
        const P t140 = shuffled<0, 2>(t138, t139);
        const Q t141 = joined(t137, t140);
        // spectrum block of 7, multiplier 6
        const Q t142 = t134 + t141;
        const Q t143 = c[1] * t134;
        const Q t144 = c[2] * t141;
        const Q t145 = t143 - t144;
        const P t146 = shuffled<1, 3>(t128, t129);
        const P t147 = shuffled<1, 3>(t131, t132);
        const Q t148 = joined(t146, t147);
        const Q t149 = c[3] * t148;
        const P t150 = shuffled<1, 3>(t135, t136);
        const P t151 = shuffled<1, 3>(t138, t139);
        const Q t152 = joined(t150, t151);
        const Q t153 = c[4] * t152;
        const Q t154 = t149 + t153;
        const Q t155 = joined(t26, t125);
        const Q t156 = c[2] * t134;
        const Q t157 = t155 - t156;
        const Q t158 = c[4] * t148;
        const Q t159 = c[5] * t152;
        const Q t160 = t158 - t159;
        const Q t161 = c[6] * t134;
        const Q t162 = t155 - t161;
        const Q t163 = c[5] * t148;
        const Q t164 = c[3] * t152;
        const Q t165 = t163 - t164;
        // complex block of 3, multiplier 2
        const Q t166 = t56 - t94;
        const P t167 = part<0>(t54);
        const P t168 = part<1>(t54);
        const P t169 = shuffled<0, 2>(t167, t168);
        const P t170 = part<0>(t166);
        const P t171 = part<1>(t166);
        const P t172 = shuffled<0, 2>(t170, t171);
        const Q t173 = joined(t169, t172);
        // spectrum block of 7, multiplier 6
        const Q t174 = t142 + t173;
        const Q t175 = t174 + t155;
        io.out(0, 21, 14, 35, t175);
        const Q t176 = c[6] * t173;
        const Q t177 = t145 - t176;
        const Q t178 = t177 + t155;
        const P t179 = shuffled<1, 3>(t167, t168);
        const P t180 = shuffled<1, 3>(t170, t171);
        const Q t181 = joined(t179, t180);
        const Q t182 = c[5] * t181;
        const Q t183 = t154 + t182;
        const Q t184 = t178 - t183;
        io.out(36, 15, 8, 29, t184);
        const Q t185 = t178 + t183;
        io.out(6, 27, 20, 41, t185);
        const Q t186 = c[6] * t141;
        const Q t187 = t157 - t186;
        const Q t188 = c[1] * t173;
        const Q t189 = t187 + t188;
        const Q t190 = c[3] * t181;
        const Q t191 = t160 - t190;
        const Q t192 = t189 - t191;
        io.out(30, 9, 2, 23, t192);
        const Q t193 = t189 + t191;
        io.out(12, 33, 26, 5, t193);
        const Q t194 = c[1] * t141;
        const Q t195 = t162 + t194;
        const Q t196 = c[2] * t173;
        const Q t197 = t195 - t196;
        const Q t198 = c[4] * t181;
        const Q t199 = t165 + t198;
        const Q t200 = t197 - t199;
        io.out(24, 3, 38, 17, t200);
        const Q t201 = t197 + t199;
        io.out(18, 39, 32, 11, t201);
    }
};

}  // namespace zulg
