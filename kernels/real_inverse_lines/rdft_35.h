// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 35.
// Inverse DFT to 35 real points, prime-factor 5, 7; up to four lanes to a register.
// 52 sums, 40 differences, 72 products of registers, which do the 443 steps of the graph, those with
// `scale` included; 29 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<35> {
    static constexpr int steps = 443;  // with `scale`
    static constexpr double inverseRoot = 0.1690308509457033;  // 1/sqrt(35), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.9009688679024191,  // c[6]: -cos 2 pi 3/7
        0.30901699437494745,  // c[7]: cos 2 pi 1/5
        0.8090169943749475,  // c[8]: -cos 2 pi 2/5
        0.9510565162951535,  // c[9]: sin 2 pi 1/5
        0.5877852522924731,  // c[10]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const P x7 = io.pair(7);
        // doubled bins
        const P t0 = c[0] * x7;
        const V t1 = part<0>(t0);
        const P x14 = io.pair(14);
        const P t2 = c[0] * x14;
        const V t3 = part<0>(t2);
        // spectrum block of 5, multiplier 2
        const V t4 = t1 + t3;
        const V x0r = io.re(0);
        const V t5 = t4 + x0r;
        const V t6 = c[7] * t1;
        const V t7 = c[8] * t3;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0r;
        const V t10 = part<1>(t0);
        const V t11 = c[9] * t10;
        const V t12 = part<1>(t2);
        const V t13 = c[10] * t12;
        const V t14 = t11 + t13;
        const V t15 = c[8] * t1;
        const V t16 = x0r - t15;
        const V t17 = c[7] * t3;
        const V t18 = t16 + t17;
        const V t19 = c[10] * t10;
        const V t20 = c[9] * t12;
        const V t21 = t19 - t20;
        const P x1 = io.pair(1);
        // doubled bins
        const P t22 = c[0] * x1;
        const P x6 = io.pair(6);
        const P t23 = P(c[0], -c[0]) * x6;
        // complex block of 5, multiplier 2
        const P t24 = t22 + t23;
        const P t25 = t22 - t23;
        const P x8 = io.pair(8);
        // doubled bins
        const P t26 = c[0] * x8;
        const P x13 = io.pair(13);
        const P t27 = P(c[0], -c[0]) * x13;
        // complex block of 5, multiplier 2
        const P t28 = t26 + t27;
        const P t29 = flipped<0, 1>(t27);
        const P t30 = flipped<1, 0>(t26);
        const P t31 = t29 + t30;
        const P t32 = t28 + t24;
        const P x15 = io.pair(15);
        // doubled bins
        const P t33 = c[0] * x15;
        // complex block of 5, multiplier 2
        const P t34 = t32 + t33;
        const P t35 = c[7] * t28;
        const P t36 = c[8] * t24;
        const P t37 = t35 - t36;
        const P t38 = t37 + t33;
        const P t39 = c[9] * t31;
        const P t40 = P(-c[10], c[10]) * t25;
        const P t41 = t39 + t40;
        const P t42 = c[8] * t28;
        const P t43 = t33 - t42;
        const P t44 = c[7] * t24;
        const P t45 = t43 + t44;
        const P t46 = c[9] * t25;
        const P t47 = P(c[10], -c[10]) * t31;
        const P t48 = t46 + t47;
        const Q x12_17 = io.pairs(12, 17);
        // doubled bins
        const Q t49 = c[0] * x12_17;
        const Q x2_3 = io.pairs(2, 3);
        const Q t50 = Q(c[0], -c[0], c[0], c[0]) * x2_3;
        // complex block of 5, multiplier 2
        const Q t51 = t49 + t50;
        const Q t52 = t49 - t50;
        const Q x9_4 = io.pairs(9, 4);
        // doubled bins
        const Q t53 = c[0] * x9_4;
        const Q x16_11 = io.pairs(16, 11);
        const Q t54 = c[0] * x16_11;
        // complex block of 5, multiplier 2
        const Q t55 = t53 + t54;
        const Q t56 = shuffled<0, 5, 2, 7>(t53, t54);
        const Q t57 = shuffled<0, 5, 2, 7>(t54, t53);
        const Q t58 = t56 - t57;
        const Q t59 = flipped<0, 1, 0, 1>(t55);
        const Q t60 = t51 + t59;
        const Q x5_10 = io.pairs(5, 10);
        // doubled bins
        const Q t61 = c[0] * x5_10;
        // complex block of 5, multiplier 2
        const Q t62 = t60 + t61;
        const Q t63 = c[7] * t51;
        const Q t64 = Q(-c[8], c[8], -c[8], c[8]) * t55;
        const Q t65 = t63 + t64;
        const Q t66 = t65 + t61;
        const Q t67 = c[9] * t52;
        const Q t68 = c[10] * t58;
        const Q t69 = t67 - t68;
        const Q t70 = c[8] * t51;
        const Q t71 = t61 - t70;
        const Q t72 = Q(c[7], -c[7], c[7], -c[7]) * t55;
        const Q t73 = t71 + t72;
        const Q t74 = c[10] * t52;
        const Q t75 = c[9] * t58;
        const Q t76 = t74 + t75;
        // spectrum block of 5, multiplier 2
        const V t77 = t9 - t14;
        const V t78 = t9 + t14;
        const V t79 = t18 - t21;
        const Q t80 = shuffled<1, 0, 3, 2>(t69);
        const Q t81 = flipped<1, 0, 1, 0>(t80);
        // complex block of 5, multiplier 2
        const Q t82 = t66 + t81;
        const Q t83 = t66 - t81;
        const Q t84 = shuffled<1, 0, 3, 2>(t76);
        const Q t85 = flipped<1, 0, 1, 0>(t84);
        const Q t86 = t73 + t85;
        const Q t87 = shuffled<0, 4, 2, 6>(t62, t86);
        const Q t88 = shuffled<0, 4, 2, 6>(t83, t82);
        const Q t89 = shuffled<0, 1, 4, 5>(t87, t88);
        const Q t90 = shuffled<2, 3, 6, 7>(t87, t88);
        // spectrum block of 7, multiplier 5
        const Q t91 = t89 + t90;
        const Q t92 = c[1] * t89;
        const Q t93 = c[2] * t90;
        const Q t94 = t92 - t93;
        const Q t95 = shuffled<1, 5, 3, 7>(t62, t86);
        const Q t96 = shuffled<1, 5, 3, 7>(t83, t82);
        const Q t97 = shuffled<0, 1, 4, 5>(t95, t96);
        const Q t98 = c[3] * t97;
        const Q t99 = shuffled<2, 3, 6, 7>(t95, t96);
        const Q t100 = c[4] * t99;
        const Q t101 = t98 + t100;
        const P t102 = joined(t5, t79);
        const P t103 = joined(t78, t77);
        const Q t104 = joined(t102, t103);
        const Q t105 = c[2] * t89;
        const Q t106 = t104 - t105;
        const Q t107 = c[4] * t97;
        const Q t108 = c[5] * t99;
        const Q t109 = t107 - t108;
        const Q t110 = c[6] * t89;
        const Q t111 = t104 - t110;
        const Q t112 = c[5] * t97;
        const Q t113 = c[3] * t99;
        const Q t114 = t112 - t113;
        const P t115 = shuffled<1, 0>(t41);
        // complex block of 5, multiplier 2
        const P t116 = t38 + t115;
        const P t117 = t38 - t115;
        const P t118 = shuffled<1, 0>(t48);
        const P t119 = flipped<1, 0>(t118);
        const P t120 = t45 + t119;
        const P t121 = shuffled<0, 2>(t34, t120);
        const P t122 = shuffled<0, 2>(t117, t116);
        const Q t123 = joined(t121, t122);
        // spectrum block of 7, multiplier 5
        const Q t124 = t91 + t123;
        const Q t125 = t124 + t104;
        io.out(0, 7, 14, 21, t125);
        const Q t126 = c[6] * t123;
        const Q t127 = t94 - t126;
        const Q t128 = t127 + t104;
        const P t129 = shuffled<1, 3>(t34, t120);
        const P t130 = shuffled<1, 3>(t117, t116);
        const Q t131 = joined(t129, t130);
        const Q t132 = c[5] * t131;
        const Q t133 = t101 + t132;
        const Q t134 = t128 - t133;
        io.out(15, 22, 29, 1, t134);
        const Q t135 = t128 + t133;
        io.out(20, 27, 34, 6, t135);
        const Q t136 = c[6] * t90;
        const Q t137 = t106 - t136;
        const Q t138 = c[1] * t123;
        const Q t139 = t137 + t138;
        const Q t140 = c[3] * t131;
        const Q t141 = t109 - t140;
        const Q t142 = t139 - t141;
        io.out(30, 2, 9, 16, t142);
        const Q t143 = t139 + t141;
        io.out(5, 12, 19, 26, t143);
        const Q t144 = c[1] * t90;
        const Q t145 = t111 + t144;
        const Q t146 = c[2] * t123;
        const Q t147 = t145 - t146;
        const Q t148 = c[4] * t131;
        const Q t149 = t114 + t148;
        const Q t150 = t147 - t149;
        io.out(10, 17, 24, 31, t150);
        const Q t151 = t147 + t149;
        io.out(25, 32, 4, 11, t151);
        // spectrum block of 5, multiplier 2
        const V t152 = t18 + t21;
        // complex block of 5, multiplier 2
        const Q t153 = t73 - t85;
        const P t154 = part<0>(t153);
        const V t155 = part<0>(t154);
        const P t156 = part<1>(t153);
        const V t157 = part<0>(t156);
        // spectrum block of 7, multiplier 5
        const V t158 = t155 + t157;
        const V t159 = c[1] * t155;
        const V t160 = c[2] * t157;
        const V t161 = t159 - t160;
        const V t162 = part<1>(t154);
        const V t163 = c[3] * t162;
        const V t164 = part<1>(t156);
        const V t165 = c[4] * t164;
        const V t166 = t163 + t165;
        const V t167 = c[2] * t155;
        const V t168 = t152 - t167;
        const V t169 = c[4] * t162;
        const V t170 = c[5] * t164;
        const V t171 = t169 - t170;
        const V t172 = c[6] * t155;
        const V t173 = t152 - t172;
        const V t174 = c[5] * t162;
        const V t175 = c[3] * t164;
        const V t176 = t174 - t175;
        // complex block of 5, multiplier 2
        const P t177 = t45 - t119;
        const V t178 = part<0>(t177);
        // spectrum block of 7, multiplier 5
        const V t179 = t158 + t178;
        const V t180 = t179 + t152;
        io.out(28, t180);
        const V t181 = c[6] * t178;
        const V t182 = t161 - t181;
        const V t183 = t182 + t152;
        const V t184 = part<1>(t177);
        const V t185 = c[5] * t184;
        const V t186 = t166 + t185;
        const V t187 = t183 - t186;
        io.out(8, t187);
        const V t188 = t183 + t186;
        io.out(13, t188);
        const V t189 = c[6] * t157;
        const V t190 = t168 - t189;
        const V t191 = c[1] * t178;
        const V t192 = t190 + t191;
        const V t193 = c[3] * t184;
        const V t194 = t171 - t193;
        const V t195 = t192 - t194;
        io.out(23, t195);
        const V t196 = t192 + t194;
        io.out(33, t196);
        const V t197 = c[1] * t157;
        const V t198 = t173 + t197;
        const V t199 = c[2] * t178;
        const V t200 = t198 - t199;
        const V t201 = c[4] * t184;
        const V t202 = t176 + t201;
        const V t203 = t200 - t202;
        io.out(3, t203);
        const V t204 = t200 + t202;
        io.out(18, t204);
    }
};

}  // namespace zulg
