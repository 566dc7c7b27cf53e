// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 34.
// Inverse DFT to 34 real points, prime-factor 17, 2; two lanes to a register.
// 77 sums, 57 differences, 68 products of registers, which do the 436 steps of the graph, those with
// `scale` included; 42 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<34> {
    static constexpr int steps = 436;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.9238795325112867,  // c[2]: cos 2 pi 1/16
        0.7071067811865476,  // c[3]: cos 2 pi 1/8
        1.4142135623730951,  // c[4]: cos 2 pi 1/8 times 2
        0.09543059459065593,  // c[5]: -P[1] of 17
        0.506476062234015,  // c[6]: -Q[1] of 17
        0.347088927763506,  // c[7]: P[2] of 17
        0.3809911760447736,  // c[8]: Q[2] of 17
        0.4154752217498508,  // c[9]: Q[3] of 17
        0.3049677689722511,  // c[10]: -P[3] of 17
        0.31717619283272513,  // c[11]: -P[4] of 17
        0.40623178445333147,  // c[12]: -Q[4] of 17
        0.4374199883186445,  // c[13]: -P[5] of 17
        0.27255963351038787,  // c[14]: -Q[5] of 17
        0.5139020806887744,  // c[15]: P[6] of 17
        0.039110758925753275,  // c[16]: -Q[6] of 17
        0.4116323317536197,  // c[17]: -P[7] of 17
        0.3101351696520051,  // c[18]: -Q[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x2 = io.pair(2);
        // doubled bins
        const P t0 = c[0] * x2;
        const P x15 = io.pair(15);
        const P t1 = c[0] * x15;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x8 = io.pair(8);
        const P t3 = c[0] * x8;
        const P x9 = io.pair(9);
        const P t4 = c[0] * x9;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 2
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x6 = io.pair(6);
        // doubled bins
        const P t8 = c[0] * x6;
        const P x11 = io.pair(11);
        const P t9 = c[0] * x11;
        const P t10 = shuffled<0, 2>(t8, t9);
        const P x10 = io.pair(10);
        const P t11 = c[0] * x10;
        const P x7 = io.pair(7);
        const P t12 = c[0] * x7;
        const P t13 = shuffled<0, 2>(t11, t12);
        // real block of 2
        const P t14 = t10 + t13;
        const P t15 = t10 - t13;
        const P x16 = io.pair(16);
        const P x1 = io.pair(1);
        const P t16 = shuffled<0, 2>(x16, x1);
        // doubled bins
        const P t17 = c[0] * t16;
        const P x4 = io.pair(4);
        const P x13 = io.pair(13);
        const P t18 = shuffled<0, 2>(x4, x13);
        const P t19 = c[0] * t18;
        // real block of 2
        const P t20 = t17 + t19;
        const P t21 = t17 - t19;
        const P x14 = io.pair(14);
        // doubled bins
        const P t22 = c[0] * x14;
        const P x3 = io.pair(3);
        const P t23 = c[0] * x3;
        const P t24 = shuffled<0, 2>(t22, t23);
        const P x12 = io.pair(12);
        const P t25 = c[0] * x12;
        const P x5 = io.pair(5);
        const P t26 = c[0] * x5;
        const P t27 = shuffled<0, 2>(t25, t26);
        // real block of 2
        const P t28 = t24 + t27;
        const P t29 = t24 - t27;
        // real block of 2
        const P t30 = t6 + t20;
        const P t31 = t6 - t20;
        // real block of 2
        const P t32 = t14 + t28;
        const P t33 = t14 - t28;
        // real block of 2
        const P t34 = t30 + t32;
        const P t35 = t30 - t32;
        // skew block of 4
        const P t36 = t15 - t29;
        const P t37 = t15 + t29;
        const P t38 = c[3] * t37;
        const P t39 = t38 - t21;
        const P t40 = c[3] * t36;
        const P t41 = t7 + t40;
        const P t42 = t21 + t38;
        const P t43 = t7 - t40;
        const P t44 = shuffled<1, 3>(t11, t12);
        // skew block of 8
        const P t45 = P(-c[1], c[1]) * t44;
        const P t46 = shuffled<1, 3>(t8, t9);
        const P t47 = P(c[2], -c[2]) * t46;
        const P t48 = t45 + t47;
        const P t49 = c[2] * t44;
        const P t50 = c[1] * t46;
        const P t51 = t49 + t50;
        const P t52 = shuffled<1, 3>(x16, x1);
        const P t53 = P(-c[4], c[4]) * t52;
        const P t54 = shuffled<1, 3>(x4, x13);
        const P t55 = P(c[4], -c[4]) * t54;
        const P t56 = t53 + t55;
        const P t57 = flipped<0, 1>(t55);
        const P t58 = flipped<1, 0>(t53);
        const P t59 = t57 + t58;
        const P t60 = shuffled<1, 3>(t22, t23);
        const P t61 = P(-c[1], c[1]) * t60;
        const P t62 = shuffled<1, 3>(t25, t26);
        const P t63 = P(c[2], -c[2]) * t62;
        const P t64 = t61 + t63;
        const P t65 = c[1] * t62;
        const P t66 = c[2] * t60;
        const P t67 = t65 + t66;
        const P t68 = shuffled<1, 3>(t0, t1);
        const P t69 = flipped<0, 1>(t68);
        // complex block of 2
        const P t70 = t56 + t69;
        const P t71 = shuffled<1, 3>(t3, t4);
        const P t72 = t71 + t59;
        const P t73 = flipped<1, 0>(t56);
        const P t74 = t68 + t73;
        const P t75 = shuffled<0, 3>(t71, t59);
        const P t76 = shuffled<0, 3>(t59, t71);
        const P t77 = t75 - t76;
        // complex block of 2
        const P t78 = t48 + t64;
        const P t79 = shuffled<0, 3>(t67, t51);
        const P t80 = shuffled<0, 3>(t51, t67);
        const P t81 = t79 - t80;
        const P t82 = t48 - t64;
        const P t83 = t51 + t67;
        // complex block of 2
        const P t84 = t70 + t78;
        const P t85 = flipped<0, 1>(t72);
        const P t86 = t81 + t85;
        const P t87 = t70 - t78;
        const P t88 = flipped<1, 0>(t81);
        const P t89 = t72 + t88;
        const P t90 = shuffled<0, 3>(t74, t83);
        const P t91 = shuffled<0, 3>(t83, t74);
        // complex block of 2
        const P t92 = t90 - t91;
        const P t93 = t77 - t82;
        const P t94 = t74 + t83;
        const P t95 = t77 + t82;
        const V x0r = io.re(0);
        const V x17r = io.re(17);
        const P t96 = joined(x0r, x17r);
        // spectrum block of 17, multiplier 2
        const P t97 = c[19] * t34;
        const P t98 = t96 - t97;
        const P t99 = c[5] * t86;
        const P t100 = c[6] * t84;
        const P t101 = t99 - t100;
        const P t102 = c[6] * t86;
        const P t103 = c[5] * t84;
        const P t104 = t102 + t103;
        const P t105 = c[7] * t41;
        const P t106 = c[8] * t42;
        const P t107 = t105 + t106;
        const P t108 = c[8] * t41;
        const P t109 = c[7] * t42;
        const P t110 = t108 - t109;
        const P t111 = c[9] * t94;
        const P t112 = P(-c[10], c[10]) * t95;
        const P t113 = t111 + t112;
        const P t114 = c[10] * t94;
        const P t115 = P(c[9], -c[9]) * t95;
        const P t116 = t114 + t115;
        const P t117 = c[11] * t31;
        const P t118 = c[12] * t33;
        const P t119 = t117 + t118;
        const P t120 = c[11] * t33;
        const P t121 = c[12] * t31;
        const P t122 = t120 - t121;
        const P t123 = c[13] * t93;
        const P t124 = c[14] * t92;
        const P t125 = t123 - t124;
        const P t126 = c[14] * t93;
        const P t127 = c[13] * t92;
        const P t128 = t126 + t127;
        const P t129 = c[15] * t43;
        const P t130 = c[16] * t39;
        const P t131 = t129 - t130;
        const P t132 = c[15] * t39;
        const P t133 = c[16] * t43;
        const P t134 = t132 + t133;
        const P t135 = c[17] * t89;
        const P t136 = P(c[18], -c[18]) * t87;
        const P t137 = t135 + t136;
        const P t138 = c[18] * t89;
        const P t139 = P(-c[17], c[17]) * t87;
        const P t140 = t138 + t139;
        const P t141 = c[20] * t35;
        // spectrum block of 2
        const P t142 = t98 + t141;
        const P t143 = t98 - t141;
        // spectrum block of 2
        const P t144 = t142 - t119;
        const P t145 = t142 + t119;
        // spectrum block of 2
        const P t146 = t143 - t122;
        const P t147 = t143 + t122;
        const P t148 = flipped<0, 1>(t104);
        // complex block of 2
        const P t149 = t140 + t148;
        const P t150 = flipped<1, 0>(t137);
        const P t151 = t101 + t150;
        const P t152 = t140 - t148;
        const P t153 = t101 - t150;
        const P t154 = flipped<1, 0>(t128);
        // complex block of 2
        const P t155 = t154 + t116;
        const P t156 = flipped<0, 1>(t113);
        const P t157 = t125 + t156;
        const P t158 = t116 - t154;
        const P t159 = t125 - t156;
        const P t160 = shuffled<0, 3>(t155, t149);
        const P t161 = shuffled<0, 3>(t149, t155);
        // complex block of 2
        const P t162 = t160 - t161;
        const P t163 = t151 + t157;
        const P t164 = t149 + t155;
        const P t165 = t151 - t157;
        const P t166 = flipped<0, 1>(t152);
        // complex block of 2
        const P t167 = t159 + t166;
        const P t168 = flipped<0, 1>(t158);
        const P t169 = t153 + t168;
        const P t170 = flipped<1, 0>(t159);
        const P t171 = t152 + t170;
        const P t172 = t153 - t168;
        // spectrum block of 16
        const P t173 = c[2] * t169;
        const P t174 = c[1] * t167;
        const P t175 = t173 - t174;
        const P t176 = c[2] * t167;
        const P t177 = c[1] * t169;
        const P t178 = t176 + t177;
        const P t179 = flipped<1, 0>(t164);
        const P t180 = t165 + t179;
        const P t181 = flipped<0, 1>(t165);
        const P t182 = t164 + t181;
        const P t183 = c[1] * t172;
        const P t184 = P(-c[2], c[2]) * t171;
        const P t185 = t183 + t184;
        const P t186 = c[2] * t172;
        const P t187 = P(c[1], -c[1]) * t171;
        const P t188 = t186 + t187;
        // mirrored skew block of 4
        const P t189 = t107 - t131;
        const P t190 = t110 - t134;
        const P t191 = t107 + t131;
        const P t192 = c[3] * t189;
        const P t193 = c[3] * t190;
        const P t194 = t192 - t193;
        const P t195 = t110 + t134;
        const P t196 = t192 + t193;
        // spectrum block of 2
        const P t197 = t144 + t191;
        const P t198 = t144 - t191;
        // spectrum block of 2
        const P t199 = t197 + t163;
        const P t200 = t197 - t163;
        // spectrum block of 2
        const P t201 = t198 - t162;
        const P t202 = t198 + t162;
        // spectrum block of 2
        const P t203 = t146 + t194;
        const P t204 = t146 - t194;
        // spectrum block of 2
        const P t205 = t203 + t175;
        const P t206 = t203 - t175;
        // spectrum block of 2
        const P t207 = t204 - t178;
        const P t208 = t204 + t178;
        // spectrum block of 2
        const P t209 = t145 - t195;
        const P t210 = t145 + t195;
        // spectrum block of 16
        const P t211 = P(c[3], -c[3]) * t182;
        // spectrum block of 2
        const P t212 = t209 + t211;
        const P t213 = t209 - t211;
        // spectrum block of 16
        const P t214 = c[3] * t180;
        // spectrum block of 2
        const P t215 = t210 - t214;
        const P t216 = t210 + t214;
        // spectrum block of 2
        const P t217 = t147 - t196;
        const P t218 = t147 + t196;
        // spectrum block of 2
        const P t219 = t217 + t185;
        const P t220 = t217 - t185;
        // spectrum block of 2
        const P t221 = t218 - t188;
        const P t222 = t218 + t188;
        // spectrum block of 17, multiplier 2
        const P t223 = t96 + t34;
        const P t224 = shuffled<0, 2>(t223, t199);
        const P t225 = shuffled<1, 3>(t223, t199);
        // spectrum block of 2
        const P t226 = t224 + t225;
        io.out(0, 2, t226);
        const P t227 = t224 - t225;
        io.out(17, 19, t227);
        const P t228 = shuffled<0, 2>(t212, t222);
        const P t229 = shuffled<1, 3>(t212, t222);
        // spectrum block of 2
        const P t230 = t228 + t229;
        io.out(4, 6, t230);
        const P t231 = t228 - t229;
        io.out(21, 23, t231);
        const P t232 = shuffled<0, 2>(t201, t220);
        const P t233 = shuffled<1, 3>(t201, t220);
        // spectrum block of 2
        const P t234 = t232 + t233;
        io.out(8, 10, t234);
        const P t235 = t232 - t233;
        io.out(25, 27, t235);
        const P t236 = shuffled<0, 2>(t205, t207);
        const P t237 = shuffled<1, 3>(t205, t207);
        // spectrum block of 2
        const P t238 = t236 + t237;
        io.out(12, 14, t238);
        const P t239 = t236 - t237;
        io.out(29, 31, t239);
        const P t240 = shuffled<0, 2>(t215, t216);
        const P t241 = shuffled<1, 3>(t215, t216);
        // spectrum block of 2
        const P t242 = t240 + t241;
        io.out(16, 18, t242);
        const P t243 = t240 - t241;
        io.out(33, 1, t243);
        const P t244 = shuffled<0, 2>(t208, t206);
        const P t245 = shuffled<1, 3>(t208, t206);
        // spectrum block of 2
        const P t246 = t244 + t245;
        io.out(20, 22, t246);
        const P t247 = t244 - t245;
        io.out(3, 5, t247);
        const P t248 = shuffled<0, 2>(t219, t202);
        const P t249 = shuffled<1, 3>(t219, t202);
        // spectrum block of 2
        const P t250 = t248 + t249;
        io.out(24, 26, t250);
        const P t251 = t248 - t249;
        io.out(7, 9, t251);
        const P t252 = shuffled<0, 2>(t221, t213);
        const P t253 = shuffled<1, 3>(t221, t213);
        // spectrum block of 2
        const P t254 = t252 + t253;
        io.out(28, 30, t254);
        const P t255 = t252 - t253;
        io.out(11, 13, t255);
        const V t256 = part<0>(t200);
        const V t257 = part<1>(t200);
        // spectrum block of 2
        const V t258 = t256 + t257;
        io.out(32, t258);
        const V t259 = t256 - t257;
        io.out(15, t259);
    }
};

}  // namespace zulg
