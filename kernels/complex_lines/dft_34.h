// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 34.
// Complex DFT of 34 points, prime-factor, order 2, 17; two lines of a stage to a register.
// 80 sums, 70 differences, 54 products of registers, which do the 880 steps of the graph, those with
// `scale` included; 46 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<34> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.3826834323650898,  // c[2]: sin 2 pi 1/16
        0.506476062234015,  // c[3]: Q[1] of 17
        0.09543059459065593,  // c[4]: P[1] of 17
        0.4154752217498508,  // c[5]: -Q[3] of 17
        0.3049677689722511,  // c[6]: P[3] of 17
        0.4374199883186445,  // c[7]: P[5] of 17
        0.27255963351038787,  // c[8]: Q[5] of 17
        0.3101351696520051,  // c[9]: Q[7] of 17
        0.4116323317536197,  // c[10]: P[7] of 17
        0.347088927763506,  // c[11]: P[2] of 17
        0.3809911760447736,  // c[12]: Q[2] of 17
        0.5139020806887744,  // c[13]: P[6] of 17
        0.039110758925753275,  // c[14]: -Q[6] of 17
        0.31717619283272513,  // c[15]: -P[4] of 17
        0.40623178445333147,  // c[16]: -Q[4] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_18 = io.pairs(0, 18);
        const Q x17_1 = io.pairs(17, 1);
        // complex block of 2
        const Q t0 = x0_18 + x17_1;
        const Q t1 = x0_18 - x17_1;
        const Q x2_20 = io.pairs(2, 20);
        const Q x19_3 = io.pairs(19, 3);
        // complex block of 2
        const Q t2 = x2_20 + x19_3;
        const Q t3 = x2_20 - x19_3;
        const Q x4_22 = io.pairs(4, 22);
        const Q x21_5 = io.pairs(21, 5);
        // complex block of 2
        const Q t4 = x4_22 + x21_5;
        const Q t5 = x4_22 - x21_5;
        const Q x12_30 = io.pairs(12, 30);
        const Q x29_13 = io.pairs(29, 13);
        // complex block of 2
        const Q t6 = x12_30 + x29_13;
        const Q t7 = x12_30 - x29_13;
        const Q x14_32 = io.pairs(14, 32);
        const Q x31_15 = io.pairs(31, 15);
        // complex block of 2
        const Q t8 = x14_32 + x31_15;
        const Q t9 = x14_32 - x31_15;
        const P x16 = io.pair(16);
        const P x33 = io.pair(33);
        // complex block of 2
        const P t10 = x16 + x33;
        const P t11 = x16 - x33;
        const Q t12 = shuffled<0, 1, 4, 5>(t2, t3);
        const Q t13 = shuffled<2, 3, 6, 7>(t8, t9);
        // real block of 2
        const Q t14 = t12 + t13;
        const Q t15 = t12 - t13;
        const Q t16 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t17 = joined(t10, t11);
        // real block of 2
        const Q t18 = t16 + t17;
        const Q t19 = t16 - t17;
        const Q t20 = shuffled<2, 3, 6, 7>(t6, t7);
        const Q t21 = shuffled<0, 1, 4, 5>(t4, t5);
        // real block of 2
        const Q t22 = t20 - t21;
        // real block of 16
        const Q t23 = t19 - t22;
        const Q t24 = t22 + t19;
        // real block of 2
        const Q t25 = t20 + t21;
        const Q t26 = shuffled<2, 3, 6, 7>(t2, t3);
        const Q t27 = shuffled<0, 1, 4, 5>(t8, t9);
        // real block of 2
        const Q t28 = t26 + t27;
        const Q t29 = shuffled<2, 3, 6, 7>(t4, t5);
        const Q t30 = shuffled<0, 1, 4, 5>(t6, t7);
        // real block of 2
        const Q t31 = t29 + t30;
        // real block of 2
        const Q t32 = t28 - t31;
        // real block of 2
        const Q t33 = t26 - t27;
        // real block of 2
        const Q t34 = t29 - t30;
        const Q x6_24 = io.pairs(6, 24);
        const Q x23_7 = io.pairs(23, 7);
        // complex block of 2
        const Q t35 = x6_24 + x23_7;
        const Q t36 = x6_24 - x23_7;
        const Q x10_28 = io.pairs(10, 28);
        const Q x27_11 = io.pairs(27, 11);
        // complex block of 2
        const Q t37 = x10_28 + x27_11;
        const Q t38 = x10_28 - x27_11;
        const Q t39 = shuffled<0, 1, 4, 5>(t35, t36);
        const Q t40 = shuffled<2, 3, 6, 7>(t37, t38);
        // real block of 2
        const Q t41 = t39 + t40;
        const Q t42 = shuffled<0, 1, 4, 5>(t37, t38);
        const Q t43 = shuffled<2, 3, 6, 7>(t35, t36);
        // real block of 2
        const Q t44 = t42 + t43;
        // real block of 2
        const Q t45 = t41 - t44;
        // real block of 2
        const Q t46 = t39 - t40;
        // real block of 2
        const Q t47 = t42 - t43;
        const Q x8_26 = io.pairs(8, 26);
        const Q x25_9 = io.pairs(25, 9);
        // complex block of 2
        const Q t48 = x8_26 + x25_9;
        const Q t49 = x8_26 - x25_9;
        const Q t50 = shuffled<2, 3, 6, 7>(t48, t49);
        const Q t51 = shuffled<0, 1, 4, 5>(t48, t49);
        // real block of 2
        const Q t52 = t50 + t51;
        const Q t53 = t50 - t51;
        // real block of 2
        const Q t54 = t14 + t52;
        // real block of 2
        const Q t55 = t18 + t25;
        // real block of 2
        const Q t56 = t54 + t55;
        // real block of 2
        const Q t57 = t41 + t44;
        // real block of 2
        const Q t58 = t28 + t31;
        // real block of 2
        const Q t59 = t57 + t58;
        // real block of 2
        const Q t60 = t54 - t55;
        // real block of 2
        const Q t61 = t57 - t58;
        // real block of 2
        const Q t62 = t56 + t59;
        const Q t63 = t56 - t59;
        // real block of 2
        const Q t64 = t14 - t52;
        // skew block of 4
        const Q t65 = t45 - t32;
        const Q t66 = c[0] * t65;
        const Q t67 = t64 + t66;
        const Q t68 = t64 - t66;
        // real block of 2
        const Q t69 = t18 - t25;
        // skew block of 4
        const Q t70 = t45 + t32;
        const Q t71 = c[0] * t70;
        const Q t72 = t71 - t69;
        const Q t73 = t69 + t71;
        // real block of 16
        const Q t74 = c[1] * t46;
        const Q t75 = c[2] * t47;
        const Q t76 = t74 - t75;
        const Q t77 = c[2] * t33;
        const Q t78 = c[1] * t34;
        const Q t79 = t77 - t78;
        // complex block of 2
        const Q t80 = t76 + t79;
        const Q t81 = t76 - t79;
        // real block of 16
        const Q t82 = c[1] * t47;
        const Q t83 = c[2] * t46;
        const Q t84 = t82 + t83;
        const Q t85 = c[2] * t34;
        const Q t86 = c[1] * t33;
        const Q t87 = t85 + t86;
        // complex block of 2
        const Q t88 = t84 + t87;
        const Q t89 = t87 - t84;
        // real block of 16
        const Q t90 = c[0] * t23;
        // complex block of 2
        const Q t91 = t15 + t90;
        const Q t92 = t15 - t90;
        // real block of 16
        const Q t93 = c[0] * t24;
        // complex block of 2
        const Q t94 = t53 + t93;
        const Q t95 = t93 - t53;
        // complex block of 2
        const Q t96 = t91 + t80;
        const Q t97 = t94 + t88;
        const Q t98 = t91 - t80;
        const Q t99 = t88 - t94;
        // complex block of 2
        const Q t100 = t92 + t89;
        const Q t101 = t95 - t81;
        const Q t102 = t92 - t89;
        const Q t103 = t95 + t81;
        const Q t104 = shuffled<0, 1, 4, 5>(t0, t1);
        // complex block of 17, multiplier 2
        const Q t105 = t104 + t62;
        const Q t106 = c[17] * t62;
        const Q t107 = t104 - t106;
        const Q t108 = c[18] * t63;
        // spectrum block of 2
        const Q t109 = t107 + t108;
        const Q t110 = t107 - t108;
        const Q t111 = shuffled<1, 0, 3, 2>(t96);
        // complex block of 17, multiplier 2
        const Q t112 = c[3] * t111;
        const Q t113 = shuffled<1, 0, 3, 2>(t97);
        const Q t114 = c[4] * t113;
        const Q t115 = t112 + t114;
        const Q t116 = Q(-c[3], c[3], -c[3], c[3]) * t113;
        const Q t117 = Q(c[4], -c[4], c[4], -c[4]) * t111;
        const Q t118 = t116 + t117;
        const Q t119 = shuffled<1, 0, 3, 2>(t102);
        const Q t120 = Q(-c[5], c[5], -c[5], c[5]) * t119;
        const Q t121 = shuffled<1, 0, 3, 2>(t103);
        const Q t122 = Q(c[6], -c[6], c[6], -c[6]) * t121;
        const Q t123 = t120 + t122;
        const Q t124 = c[5] * t121;
        const Q t125 = c[6] * t119;
        const Q t126 = t124 + t125;
        const Q t127 = shuffled<1, 0, 3, 2>(t101);
        const Q t128 = Q(-c[7], c[7], -c[7], c[7]) * t127;
        const Q t129 = shuffled<1, 0, 3, 2>(t100);
        const Q t130 = Q(c[8], -c[8], c[8], -c[8]) * t129;
        const Q t131 = t128 + t130;
        const Q t132 = c[8] * t127;
        const Q t133 = c[7] * t129;
        const Q t134 = t132 + t133;
        const Q t135 = shuffled<1, 0, 3, 2>(t98);
        const Q t136 = c[9] * t135;
        const Q t137 = shuffled<1, 0, 3, 2>(t99);
        const Q t138 = c[10] * t137;
        const Q t139 = t136 + t138;
        const Q t140 = Q(-c[9], c[9], -c[9], c[9]) * t137;
        const Q t141 = Q(c[10], -c[10], c[10], -c[10]) * t135;
        const Q t142 = t140 + t141;
        // complex block of 2
        const Q t143 = t118 - t142;
        const Q t144 = shuffled<0, 5, 2, 7>(t134, t126);
        const Q t145 = shuffled<0, 5, 2, 7>(t126, t134);
        // complex block of 2
        const Q t146 = t144 - t145;
        // complex block of 2
        const Q t147 = t143 - t146;
        // complex block of 2
        const Q t148 = t115 + t139;
        // complex block of 2
        const Q t149 = t131 + t123;
        const Q t150 = flipped<1, 0, 1, 0>(t149);
        // complex block of 2
        const Q t151 = t148 + t150;
        // complex block of 2
        const Q t152 = t118 + t142;
        // complex block of 2
        const Q t153 = t131 - t123;
        // complex block of 2
        const Q t154 = t152 + t153;
        const Q t155 = t152 - t153;
        const Q t156 = shuffled<0, 5, 2, 7>(t115, t139);
        const Q t157 = shuffled<0, 5, 2, 7>(t139, t115);
        // complex block of 2
        const Q t158 = t156 - t157;
        // complex block of 2
        const Q t159 = t134 + t126;
        const Q t160 = flipped<1, 0, 1, 0>(t159);
        // complex block of 2
        const Q t161 = t158 + t160;
        const Q t162 = t158 - t160;
        // complex block of 17, multiplier 2
        const Q t163 = c[11] * t67;
        const Q t164 = c[12] * t73;
        const Q t165 = t163 + t164;
        const Q t166 = c[13] * t68;
        const Q t167 = c[14] * t72;
        const Q t168 = t166 - t167;
        // mirrored skew block of 4
        const Q t169 = t165 - t168;
        const Q t170 = t165 + t168;
        // complex block of 17, multiplier 2
        const Q t171 = c[12] * t67;
        const Q t172 = c[11] * t73;
        const Q t173 = t171 - t172;
        const Q t174 = c[13] * t72;
        const Q t175 = c[14] * t68;
        const Q t176 = t174 + t175;
        // mirrored skew block of 4
        const Q t177 = t173 - t176;
        const Q t178 = t173 + t176;
        // complex block of 17, multiplier 2
        const Q t179 = c[15] * t60;
        const Q t180 = c[16] * t61;
        const Q t181 = t179 + t180;
        const Q t182 = c[15] * t61;
        const Q t183 = c[16] * t60;
        const Q t184 = t182 - t183;
        // spectrum block of 2
        const Q t185 = t109 - t181;
        // spectrum block of 2
        const Q t186 = t185 + t170;
        const Q t187 = t185 - t170;
        // complex block of 2
        const Q t188 = t143 + t146;
        const Q t189 = flipped<0, 1, 0, 1>(t148);
        const Q t190 = t149 + t189;
        // spectrum block of 2
        const Q t191 = t186 + t190;
        const Q t192 = t186 - t190;
        // spectrum block of 2
        const Q t193 = t187 - t188;
        const Q t194 = t187 + t188;
        const Q t195 = shuffled<0, 1, 6, 7>(t193, t194);
        io.pairs(8, 9, t195);
        // spectrum block of 2
        const Q t196 = t109 + t181;
        // spectrum block of 2
        const Q t197 = t196 - t178;
        const Q t198 = t196 + t178;
        const Q t199 = flipped<0, 1, 0, 1>(t151);
        // spectrum block of 16
        const Q t200 = t147 + t199;
        const Q t201 = t147 - t199;
        const Q t202 = c[0] * t201;
        // spectrum block of 2
        const Q t203 = t197 - t202;
        const Q t204 = t197 + t202;
        // spectrum block of 16
        const Q t205 = c[0] * t200;
        // spectrum block of 2
        const Q t206 = t198 - t205;
        const Q t207 = shuffled<0, 1, 6, 7>(t206, t105);
        io.pairs(16, 17, t207);
        const Q t208 = shuffled<0, 1, 6, 7>(t192, t206);
        io.pairs(32, 33, t208);
        const Q t209 = t198 + t205;
        const Q t210 = shuffled<0, 1, 6, 7>(t105, t209);
        io.pairs(0, 1, t210);
        const Q t211 = shuffled<0, 1, 6, 7>(t209, t191);
        io.pairs(18, 19, t211);
        // spectrum block of 2
        const Q t212 = t110 - t184;
        // mirrored skew block of 4
        const Q t213 = c[0] * t169;
        const Q t214 = c[0] * t177;
        const Q t215 = t213 - t214;
        // spectrum block of 2
        const Q t216 = t212 + t215;
        const Q t217 = t212 - t215;
        // spectrum block of 16
        const Q t218 = c[1] * t161;
        const Q t219 = c[2] * t154;
        const Q t220 = t218 - t219;
        const Q t221 = c[1] * t154;
        const Q t222 = c[2] * t161;
        const Q t223 = t221 + t222;
        // spectrum block of 2
        const Q t224 = t216 + t220;
        const Q t225 = shuffled<0, 1, 6, 7>(t224, t204);
        io.pairs(12, 13, t225);
        const Q t226 = t216 - t220;
        const Q t227 = shuffled<0, 1, 6, 7>(t203, t226);
        io.pairs(4, 5, t227);
        // spectrum block of 2
        const Q t228 = t217 - t223;
        const Q t229 = shuffled<0, 1, 6, 7>(t228, t192);
        io.pairs(14, 15, t229);
        const Q t230 = shuffled<0, 1, 6, 7>(t204, t228);
        io.pairs(30, 31, t230);
        const Q t231 = t217 + t223;
        const Q t232 = shuffled<0, 1, 6, 7>(t191, t231);
        io.pairs(2, 3, t232);
        const Q t233 = shuffled<0, 1, 6, 7>(t231, t203);
        io.pairs(20, 21, t233);
        // spectrum block of 2
        const Q t234 = t110 + t184;
        // mirrored skew block of 4
        const Q t235 = t213 + t214;
        // spectrum block of 2
        const Q t236 = t234 - t235;
        const Q t237 = t234 + t235;
        // spectrum block of 16
        const Q t238 = c[2] * t162;
        const Q t239 = c[1] * t155;
        const Q t240 = t238 - t239;
        const Q t241 = c[2] * t155;
        const Q t242 = c[1] * t162;
        const Q t243 = t241 + t242;
        // spectrum block of 2
        const Q t244 = t236 + t240;
        const Q t245 = shuffled<0, 1, 6, 7>(t244, t193);
        io.pairs(24, 25, t245);
        const Q t246 = t236 - t240;
        const Q t247 = shuffled<0, 1, 6, 7>(t194, t246);
        io.pairs(26, 27, t247);
        // spectrum block of 2
        const Q t248 = t237 - t243;
        const Q t249 = shuffled<0, 1, 6, 7>(t246, t248);
        io.pairs(10, 11, t249);
        const Q t250 = shuffled<0, 1, 6, 7>(t248, t224);
        io.pairs(28, 29, t250);
        const Q t251 = t237 + t243;
        const Q t252 = shuffled<0, 1, 6, 7>(t251, t244);
        io.pairs(6, 7, t252);
        const Q t253 = shuffled<0, 1, 6, 7>(t226, t251);
        io.pairs(22, 23, t253);
    }
};

}  // namespace zulg
