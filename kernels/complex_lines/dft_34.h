// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 34.
// Complex DFT of 34 points, prime-factor, order 2, 17; two lines of a stage to a register.
// 80 sums, 70 differences, 54 products of registers, which do the 880 steps of the graph, those with
// `scale` included; 29 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<34> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.506476062234015,  // c[3]: Q[1] of 17
        0.09543059459065593,  // c[4]: P[1] of 17
        0.347088927763506,  // c[5]: P[2] of 17
        0.3809911760447736,  // c[6]: Q[2] of 17
        0.4154752217498508,  // c[7]: -Q[3] of 17
        0.3049677689722511,  // c[8]: P[3] of 17
        0.31717619283272513,  // c[9]: -P[4] of 17
        0.40623178445333147,  // c[10]: -Q[4] of 17
        0.4374199883186445,  // c[11]: P[5] of 17
        0.27255963351038787,  // c[12]: Q[5] of 17
        0.5139020806887744,  // c[13]: P[6] of 17
        0.039110758925753275,  // c[14]: -Q[6] of 17
        0.3101351696520051,  // c[15]: Q[7] of 17
        0.4116323317536197,  // c[16]: P[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_2 = io.pairs(0, 2);
        const Q x17_19 = io.pairs(17, 19);
        // complex block of 2
        const Q t0 = x0_2 + x17_19;
        const Q t1 = x0_2 - x17_19;
        const Q x4_6 = io.pairs(4, 6);
        const Q x21_23 = io.pairs(21, 23);
        // complex block of 2
        const Q t2 = x4_6 + x21_23;
        const Q t3 = x4_6 - x21_23;
        const Q x8_10 = io.pairs(8, 10);
        const Q x25_27 = io.pairs(25, 27);
        // complex block of 2
        const Q t4 = x8_10 + x25_27;
        const Q t5 = x8_10 - x25_27;
        const Q x12_14 = io.pairs(12, 14);
        const Q x29_31 = io.pairs(29, 31);
        // complex block of 2
        const Q t6 = x12_14 + x29_31;
        const Q t7 = x12_14 - x29_31;
        const Q x16_18 = io.pairs(16, 18);
        const Q x33_1 = io.pairs(33, 1);
        // complex block of 2
        const Q t8 = x16_18 + x33_1;
        const Q t9 = x16_18 - x33_1;
        const Q x20_22 = io.pairs(20, 22);
        const Q x3_5 = io.pairs(3, 5);
        // complex block of 2
        const Q t10 = x20_22 + x3_5;
        const Q t11 = x20_22 - x3_5;
        const Q x24_26 = io.pairs(24, 26);
        const Q x7_9 = io.pairs(7, 9);
        // complex block of 2
        const Q t12 = x24_26 + x7_9;
        const Q t13 = x24_26 - x7_9;
        const Q x28_30 = io.pairs(28, 30);
        const Q x11_13 = io.pairs(11, 13);
        // complex block of 2
        const Q t14 = x28_30 + x11_13;
        const Q t15 = x28_30 - x11_13;
        const P x32 = io.pair(32);
        const P x15 = io.pair(15);
        // complex block of 2
        const P t16 = x32 + x15;
        const P t17 = x32 - x15;
        const Q t18 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t19 = joined(t16, t17);
        // real block of 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        const Q t22 = shuffled<2, 3, 6, 7>(t12, t13);
        const Q t23 = shuffled<0, 1, 4, 5>(t4, t5);
        // real block of 2
        const Q t24 = t22 + t23;
        const Q t25 = t22 - t23;
        // real block of 2
        const Q t26 = t20 + t24;
        const Q t27 = t20 - t24;
        const Q t28 = shuffled<2, 3, 6, 7>(t2, t3);
        const Q t29 = shuffled<0, 1, 4, 5>(t14, t15);
        // real block of 2
        const Q t30 = t28 + t29;
        const Q t31 = t28 - t29;
        const Q t32 = shuffled<2, 3, 6, 7>(t4, t5);
        const Q t33 = shuffled<0, 1, 4, 5>(t12, t13);
        // real block of 2
        const Q t34 = t32 + t33;
        const Q t35 = t32 - t33;
        // real block of 2
        const Q t36 = t30 + t34;
        const Q t37 = t30 - t34;
        const Q t38 = shuffled<2, 3, 6, 7>(t8, t9);
        const Q t39 = shuffled<0, 1, 4, 5>(t8, t9);
        // real block of 2
        const Q t40 = t38 + t39;
        const Q t41 = t38 - t39;
        const Q t42 = shuffled<2, 3, 6, 7>(t14, t15);
        const Q t43 = shuffled<0, 1, 4, 5>(t2, t3);
        // real block of 2
        const Q t44 = t42 + t43;
        const Q t45 = t42 - t43;
        // real block of 2
        const Q t46 = t40 + t44;
        const Q t47 = t40 - t44;
        const Q t48 = shuffled<0, 1, 4, 5>(t10, t11);
        const Q t49 = shuffled<2, 3, 6, 7>(t6, t7);
        // real block of 2
        const Q t50 = t48 + t49;
        const Q t51 = t48 - t49;
        const Q t52 = shuffled<2, 3, 6, 7>(t10, t11);
        const Q t53 = shuffled<0, 1, 4, 5>(t6, t7);
        // real block of 2
        const Q t54 = t52 + t53;
        const Q t55 = t52 - t53;
        // real block of 2
        const Q t56 = t50 + t54;
        const Q t57 = t50 - t54;
        // real block of 2
        const Q t58 = t26 + t46;
        const Q t59 = t26 - t46;
        // real block of 2
        const Q t60 = t36 + t56;
        const Q t61 = t36 - t56;
        // real block of 2
        const Q t62 = t58 + t60;
        const Q t63 = t58 - t60;
        // real block of 16
        const Q t64 = c[0] * t31;
        const Q t65 = c[1] * t35;
        const Q t66 = t64 - t65;
        const Q t67 = c[0] * t35;
        const Q t68 = c[1] * t31;
        const Q t69 = t67 + t68;
        const Q t70 = t41 - t45;
        const Q t71 = t45 + t41;
        const Q t72 = c[1] * t51;
        const Q t73 = c[0] * t55;
        const Q t74 = t72 - t73;
        const Q t75 = c[1] * t55;
        const Q t76 = c[0] * t51;
        const Q t77 = t75 + t76;
        const Q t78 = c[2] * t70;
        // complex block of 2
        const Q t79 = t21 + t78;
        // real block of 16
        const Q t80 = c[2] * t71;
        // complex block of 2
        const Q t81 = t25 + t80;
        const Q t82 = t21 - t78;
        const Q t83 = t80 - t25;
        // complex block of 2
        const Q t84 = t66 + t74;
        const Q t85 = t69 + t77;
        const Q t86 = t66 - t74;
        const Q t87 = t77 - t69;
        // complex block of 2
        const Q t88 = t79 + t84;
        const Q t89 = t81 + t85;
        const Q t90 = t79 - t84;
        const Q t91 = t85 - t81;
        // complex block of 2
        const Q t92 = t82 + t87;
        const Q t93 = t83 - t86;
        const Q t94 = t82 - t87;
        const Q t95 = t83 + t86;
        // skew block of 4
        const Q t96 = t37 - t57;
        const Q t97 = t37 + t57;
        const Q t98 = c[2] * t97;
        const Q t99 = t98 - t47;
        const Q t100 = c[2] * t96;
        const Q t101 = t27 + t100;
        const Q t102 = t47 + t98;
        const Q t103 = t27 - t100;
        const Q t104 = shuffled<0, 1, 4, 5>(t0, t1);
        // complex block of 17, multiplier 2
        const Q t105 = t104 + t62;
        io.pairs(0, 17, t105);
        const Q t106 = c[17] * t62;
        const Q t107 = t104 - t106;
        const Q t108 = shuffled<1, 0, 3, 2>(t88);
        const Q t109 = c[3] * t108;
        const Q t110 = shuffled<1, 0, 3, 2>(t89);
        const Q t111 = c[4] * t110;
        const Q t112 = t109 + t111;
        const Q t113 = Q(-c[3], c[3], -c[3], c[3]) * t110;
        const Q t114 = Q(c[4], -c[4], c[4], -c[4]) * t108;
        const Q t115 = t113 + t114;
        const Q t116 = c[5] * t101;
        const Q t117 = c[6] * t102;
        const Q t118 = t116 + t117;
        const Q t119 = c[6] * t101;
        const Q t120 = c[5] * t102;
        const Q t121 = t119 - t120;
        const Q t122 = shuffled<1, 0, 3, 2>(t94);
        const Q t123 = Q(-c[7], c[7], -c[7], c[7]) * t122;
        const Q t124 = shuffled<1, 0, 3, 2>(t95);
        const Q t125 = Q(c[8], -c[8], c[8], -c[8]) * t124;
        const Q t126 = t123 + t125;
        const Q t127 = c[7] * t124;
        const Q t128 = c[8] * t122;
        const Q t129 = t127 + t128;
        const Q t130 = c[9] * t59;
        const Q t131 = c[10] * t61;
        const Q t132 = t130 + t131;
        const Q t133 = c[9] * t61;
        const Q t134 = c[10] * t59;
        const Q t135 = t133 - t134;
        const Q t136 = shuffled<1, 0, 3, 2>(t93);
        const Q t137 = Q(-c[11], c[11], -c[11], c[11]) * t136;
        const Q t138 = shuffled<1, 0, 3, 2>(t92);
        const Q t139 = Q(c[12], -c[12], c[12], -c[12]) * t138;
        const Q t140 = t137 + t139;
        const Q t141 = c[12] * t136;
        const Q t142 = c[11] * t138;
        const Q t143 = t141 + t142;
        const Q t144 = c[13] * t103;
        const Q t145 = c[14] * t99;
        const Q t146 = t144 - t145;
        const Q t147 = c[13] * t99;
        const Q t148 = c[14] * t103;
        const Q t149 = t147 + t148;
        const Q t150 = shuffled<1, 0, 3, 2>(t90);
        const Q t151 = c[15] * t150;
        const Q t152 = shuffled<1, 0, 3, 2>(t91);
        const Q t153 = c[16] * t152;
        const Q t154 = t151 + t153;
        const Q t155 = Q(-c[15], c[15], -c[15], c[15]) * t152;
        const Q t156 = Q(c[16], -c[16], c[16], -c[16]) * t150;
        const Q t157 = t155 + t156;
        const Q t158 = c[18] * t63;
        // spectrum block of 2
        const Q t159 = t107 + t158;
        const Q t160 = t107 - t158;
        // spectrum block of 2
        const Q t161 = t159 - t132;
        const Q t162 = t159 + t132;
        // spectrum block of 2
        const Q t163 = t160 - t135;
        const Q t164 = t160 + t135;
        // complex block of 2
        const Q t165 = t115 - t157;
        const Q t166 = t112 + t154;
        const Q t167 = t115 + t157;
        const Q t168 = shuffled<0, 5, 2, 7>(t112, t154);
        const Q t169 = shuffled<0, 5, 2, 7>(t154, t112);
        const Q t170 = t168 - t169;
        const Q t171 = shuffled<0, 5, 2, 7>(t143, t129);
        const Q t172 = shuffled<0, 5, 2, 7>(t129, t143);
        // complex block of 2
        const Q t173 = t171 - t172;
        const Q t174 = t140 + t126;
        const Q t175 = t143 + t129;
        const Q t176 = t140 - t126;
        // complex block of 2
        const Q t177 = t165 + t173;
        const Q t178 = flipped<0, 1, 0, 1>(t166);
        const Q t179 = t174 + t178;
        const Q t180 = t165 - t173;
        const Q t181 = flipped<1, 0, 1, 0>(t174);
        const Q t182 = t166 + t181;
        // complex block of 2
        const Q t183 = t167 + t176;
        const Q t184 = flipped<1, 0, 1, 0>(t175);
        const Q t185 = t170 + t184;
        const Q t186 = t167 - t176;
        const Q t187 = t170 - t184;
        // spectrum block of 16
        const Q t188 = c[0] * t185;
        const Q t189 = c[1] * t183;
        const Q t190 = t188 - t189;
        const Q t191 = c[0] * t183;
        const Q t192 = c[1] * t185;
        const Q t193 = t191 + t192;
        const Q t194 = flipped<0, 1, 0, 1>(t182);
        const Q t195 = t180 + t194;
        const Q t196 = t180 - t194;
        const Q t197 = c[1] * t187;
        const Q t198 = c[0] * t186;
        const Q t199 = t197 - t198;
        const Q t200 = c[1] * t186;
        const Q t201 = c[0] * t187;
        const Q t202 = t200 + t201;
        // mirrored skew block of 4
        const Q t203 = t118 - t146;
        const Q t204 = t121 - t149;
        const Q t205 = t118 + t146;
        const Q t206 = c[2] * t203;
        const Q t207 = c[2] * t204;
        const Q t208 = t206 - t207;
        const Q t209 = t121 + t149;
        const Q t210 = t206 + t207;
        // spectrum block of 2
        const Q t211 = t161 + t205;
        const Q t212 = t161 - t205;
        // spectrum block of 2
        const Q t213 = t211 + t179;
        io.pairs(2, 19, t213);
        const Q t214 = t211 - t179;
        io.pairs(32, 15, t214);
        // spectrum block of 2
        const Q t215 = t212 - t177;
        io.pairs(8, 25, t215);
        const Q t216 = t212 + t177;
        io.pairs(26, 9, t216);
        // spectrum block of 2
        const Q t217 = t163 + t208;
        const Q t218 = t163 - t208;
        // spectrum block of 2
        const Q t219 = t217 + t190;
        io.pairs(12, 29, t219);
        const Q t220 = t217 - t190;
        io.pairs(22, 5, t220);
        // spectrum block of 2
        const Q t221 = t218 - t193;
        io.pairs(14, 31, t221);
        const Q t222 = t218 + t193;
        io.pairs(20, 3, t222);
        // spectrum block of 2
        const Q t223 = t162 - t209;
        const Q t224 = t162 + t209;
        // spectrum block of 16
        const Q t225 = c[2] * t196;
        // spectrum block of 2
        const Q t226 = t223 - t225;
        io.pairs(4, 21, t226);
        const Q t227 = t223 + t225;
        io.pairs(30, 13, t227);
        // spectrum block of 16
        const Q t228 = c[2] * t195;
        // spectrum block of 2
        const Q t229 = t224 - t228;
        io.pairs(16, 33, t229);
        const Q t230 = t224 + t228;
        io.pairs(18, 1, t230);
        // spectrum block of 2
        const Q t231 = t164 - t210;
        const Q t232 = t164 + t210;
        // spectrum block of 2
        const Q t233 = t231 + t199;
        io.pairs(24, 7, t233);
        const Q t234 = t231 - t199;
        io.pairs(10, 27, t234);
        // spectrum block of 2
        const Q t235 = t232 - t202;
        io.pairs(28, 11, t235);
        const Q t236 = t232 + t202;
        io.pairs(6, 23, t236);
    }
};

}  // namespace zulg
