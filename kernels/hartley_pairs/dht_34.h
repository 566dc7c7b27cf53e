// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 34.
// Hartley transform of 34 points, form I; two lanes to a register.
// 85 sums, 65 differences, 54 products of registers, which do the 440 steps of the graph, those with
// `scale` included; 41 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<34> {
    static constexpr int steps = 440;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.9238795325112867,  // c[2]: cos 2 pi 1/16
        0.09543059459065593,  // c[3]: -P[1] of 17
        0.506476062234015,  // c[4]: -Q[1] of 17
        0.347088927763506,  // c[5]: P[2] of 17
        0.3809911760447736,  // c[6]: Q[2] of 17
        0.4154752217498508,  // c[7]: Q[3] of 17
        0.3049677689722511,  // c[8]: -P[3] of 17
        0.31717619283272513,  // c[9]: -P[4] of 17
        0.40623178445333147,  // c[10]: -Q[4] of 17
        0.4374199883186445,  // c[11]: -P[5] of 17
        0.27255963351038787,  // c[12]: -Q[5] of 17
        0.5139020806887744,  // c[13]: P[6] of 17
        0.039110758925753275,  // c[14]: -Q[6] of 17
        0.4116323317536197,  // c[15]: -P[7] of 17
        0.3101351696520051,  // c[16]: -Q[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x33_32 = io.in(33, 32);
        // input stage
        const P t0 = x1_2 + x33_32;
        const P t1 = x1_2 - x33_32;
        const P x3_4 = io.in(3, 4);
        const P x31_30 = io.in(31, 30);
        const P t2 = x3_4 + x31_30;
        const P t3 = x3_4 - x31_30;
        const P x5_6 = io.in(5, 6);
        const P x29_28 = io.in(29, 28);
        const P t4 = x5_6 + x29_28;
        const P t5 = x5_6 - x29_28;
        const P x7_8 = io.in(7, 8);
        const P x27_26 = io.in(27, 26);
        const P t6 = x7_8 + x27_26;
        const P t7 = x7_8 - x27_26;
        const P x9_10 = io.in(9, 10);
        const P x25_24 = io.in(25, 24);
        const P t8 = x9_10 + x25_24;
        const P t9 = x9_10 - x25_24;
        const P x11_12 = io.in(11, 12);
        const P x23_22 = io.in(23, 22);
        const P t10 = x11_12 + x23_22;
        const P t11 = x11_12 - x23_22;
        const P x13_14 = io.in(13, 14);
        const P x21_20 = io.in(21, 20);
        const P t12 = x13_14 + x21_20;
        const P t13 = x13_14 - x21_20;
        const P x15_16 = io.in(15, 16);
        const P x19_18 = io.in(19, 18);
        const P t14 = x15_16 + x19_18;
        const P t15 = x15_16 - x19_18;
        const P t16 = shuffled<1, 2>(t0, t14);
        const P t17 = shuffled<1, 2>(t6, t8);
        // real block of 2
        const P t18 = t16 + t17;
        const P t19 = t16 - t17;
        const P t20 = shuffled<1, 2>(t4, t10);
        const P t21 = shuffled<1, 2>(t8, t6);
        // real block of 2
        const P t22 = t20 + t21;
        const P t23 = t20 - t21;
        const P t24 = shuffled<1, 2>(t14, t0);
        const P t25 = shuffled<1, 2>(t2, t12);
        // real block of 2
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        const P t28 = shuffled<1, 2>(t12, t2);
        const P t29 = shuffled<1, 2>(t10, t4);
        // real block of 2
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        // real block of 2
        const P t32 = t18 + t26;
        const P t33 = t18 - t26;
        // real block of 2
        const P t34 = t22 + t30;
        const P t35 = t22 - t30;
        // real block of 2
        const P t36 = t32 + t34;
        const P t37 = t32 - t34;
        // skew block of 4
        const P t38 = t23 - t31;
        const P t39 = t23 + t31;
        const P t40 = c[0] * t39;
        const P t41 = t40 - t27;
        const P t42 = c[0] * t38;
        const P t43 = t19 + t42;
        const P t44 = t27 + t40;
        const P t45 = t19 - t42;
        const P t46 = shuffled<1, 2>(t9, t7);
        // skew block of 8
        const P t47 = P(-c[1], c[1]) * t46;
        const P t48 = shuffled<1, 2>(t5, t11);
        const P t49 = P(c[2], -c[2]) * t48;
        const P t50 = t47 + t49;
        const P t51 = c[2] * t46;
        const P t52 = c[1] * t48;
        const P t53 = t51 + t52;
        const P t54 = shuffled<1, 2>(t15, t1);
        const P t55 = P(-c[0], c[0]) * t54;
        const P t56 = shuffled<1, 2>(t3, t13);
        const P t57 = P(c[0], -c[0]) * t56;
        const P t58 = t55 + t57;
        const P t59 = flipped<0, 1>(t57);
        const P t60 = flipped<1, 0>(t55);
        const P t61 = t59 + t60;
        const P t62 = shuffled<1, 2>(t13, t3);
        const P t63 = P(-c[1], c[1]) * t62;
        const P t64 = shuffled<1, 2>(t11, t5);
        const P t65 = P(c[2], -c[2]) * t64;
        const P t66 = t63 + t65;
        const P t67 = c[1] * t64;
        const P t68 = c[2] * t62;
        const P t69 = t67 + t68;
        const P t70 = shuffled<1, 2>(t1, t15);
        const P t71 = flipped<0, 1>(t70);
        // complex block of 2
        const P t72 = t58 + t71;
        const P t73 = shuffled<1, 2>(t7, t9);
        const P t74 = t73 + t61;
        const P t75 = flipped<1, 0>(t58);
        const P t76 = t70 + t75;
        const P t77 = shuffled<0, 3>(t73, t61);
        const P t78 = shuffled<0, 3>(t61, t73);
        const P t79 = t77 - t78;
        // complex block of 2
        const P t80 = t50 + t66;
        const P t81 = shuffled<0, 3>(t69, t53);
        const P t82 = shuffled<0, 3>(t53, t69);
        const P t83 = t81 - t82;
        const P t84 = t50 - t66;
        const P t85 = t53 + t69;
        // complex block of 2
        const P t86 = t72 + t80;
        const P t87 = flipped<0, 1>(t74);
        const P t88 = t83 + t87;
        const P t89 = t72 - t80;
        const P t90 = flipped<1, 0>(t83);
        const P t91 = t74 + t90;
        const P t92 = shuffled<0, 3>(t76, t85);
        const P t93 = shuffled<0, 3>(t85, t76);
        // complex block of 2
        const P t94 = t92 - t93;
        const P t95 = t79 - t84;
        const P t96 = t76 + t85;
        const P t97 = t79 + t84;
        const P x0_17 = io.in(0, 17);
        // spectrum block of 17, multiplier 2
        const P t98 = c[17] * t36;
        const P t99 = x0_17 - t98;
        const P t100 = c[3] * t88;
        const P t101 = c[4] * t86;
        const P t102 = t100 - t101;
        const P t103 = c[4] * t88;
        const P t104 = c[3] * t86;
        const P t105 = t103 + t104;
        const P t106 = c[5] * t43;
        const P t107 = c[6] * t44;
        const P t108 = t106 + t107;
        const P t109 = c[6] * t43;
        const P t110 = c[5] * t44;
        const P t111 = t109 - t110;
        const P t112 = c[7] * t96;
        const P t113 = P(-c[8], c[8]) * t97;
        const P t114 = t112 + t113;
        const P t115 = c[8] * t96;
        const P t116 = P(c[7], -c[7]) * t97;
        const P t117 = t115 + t116;
        const P t118 = c[9] * t33;
        const P t119 = c[10] * t35;
        const P t120 = t118 + t119;
        const P t121 = c[9] * t35;
        const P t122 = c[10] * t33;
        const P t123 = t121 - t122;
        const P t124 = c[11] * t95;
        const P t125 = c[12] * t94;
        const P t126 = t124 - t125;
        const P t127 = c[12] * t95;
        const P t128 = c[11] * t94;
        const P t129 = t127 + t128;
        const P t130 = c[13] * t45;
        const P t131 = c[14] * t41;
        const P t132 = t130 - t131;
        const P t133 = c[13] * t41;
        const P t134 = c[14] * t45;
        const P t135 = t133 + t134;
        const P t136 = c[15] * t91;
        const P t137 = P(c[16], -c[16]) * t89;
        const P t138 = t136 + t137;
        const P t139 = c[16] * t91;
        const P t140 = P(-c[15], c[15]) * t89;
        const P t141 = t139 + t140;
        const P t142 = c[18] * t37;
        // spectrum block of 2
        const P t143 = t99 + t142;
        const P t144 = t99 - t142;
        // spectrum block of 2
        const P t145 = t143 - t120;
        const P t146 = t143 + t120;
        // spectrum block of 2
        const P t147 = t144 - t123;
        const P t148 = t144 + t123;
        const P t149 = flipped<0, 1>(t105);
        // complex block of 2
        const P t150 = t141 + t149;
        const P t151 = flipped<1, 0>(t138);
        const P t152 = t102 + t151;
        const P t153 = t141 - t149;
        const P t154 = t102 - t151;
        const P t155 = flipped<1, 0>(t129);
        // complex block of 2
        const P t156 = t155 + t117;
        const P t157 = flipped<0, 1>(t114);
        const P t158 = t126 + t157;
        const P t159 = t117 - t155;
        const P t160 = t126 - t157;
        const P t161 = shuffled<0, 3>(t156, t150);
        const P t162 = shuffled<0, 3>(t150, t156);
        // complex block of 2
        const P t163 = t161 - t162;
        const P t164 = t152 + t158;
        const P t165 = t150 + t156;
        const P t166 = t152 - t158;
        const P t167 = flipped<0, 1>(t153);
        // complex block of 2
        const P t168 = t160 + t167;
        const P t169 = flipped<0, 1>(t159);
        const P t170 = t154 + t169;
        const P t171 = flipped<1, 0>(t160);
        const P t172 = t153 + t171;
        const P t173 = t154 - t169;
        // spectrum block of 16
        const P t174 = c[2] * t170;
        const P t175 = c[1] * t168;
        const P t176 = t174 - t175;
        const P t177 = c[2] * t168;
        const P t178 = c[1] * t170;
        const P t179 = t177 + t178;
        const P t180 = flipped<1, 0>(t165);
        const P t181 = t166 + t180;
        const P t182 = flipped<0, 1>(t166);
        const P t183 = t165 + t182;
        const P t184 = c[1] * t173;
        const P t185 = P(-c[2], c[2]) * t172;
        const P t186 = t184 + t185;
        const P t187 = c[2] * t173;
        const P t188 = P(c[1], -c[1]) * t172;
        const P t189 = t187 + t188;
        // mirrored skew block of 4
        const P t190 = t108 - t132;
        const P t191 = t111 - t135;
        const P t192 = t108 + t132;
        const P t193 = c[0] * t190;
        const P t194 = c[0] * t191;
        const P t195 = t193 - t194;
        const P t196 = t111 + t135;
        const P t197 = t193 + t194;
        // spectrum block of 2
        const P t198 = t145 + t192;
        const P t199 = t145 - t192;
        // spectrum block of 2
        const P t200 = t198 + t164;
        const P t201 = t198 - t164;
        // spectrum block of 2
        const P t202 = t199 - t163;
        const P t203 = t199 + t163;
        // spectrum block of 2
        const P t204 = t147 + t195;
        const P t205 = t147 - t195;
        // spectrum block of 2
        const P t206 = t204 + t176;
        const P t207 = t204 - t176;
        // spectrum block of 2
        const P t208 = t205 - t179;
        const P t209 = t205 + t179;
        // spectrum block of 2
        const P t210 = t146 - t196;
        const P t211 = t146 + t196;
        // spectrum block of 16
        const P t212 = P(c[0], -c[0]) * t183;
        // spectrum block of 2
        const P t213 = t210 + t212;
        const P t214 = t210 - t212;
        // spectrum block of 16
        const P t215 = c[0] * t181;
        // spectrum block of 2
        const P t216 = t211 - t215;
        const P t217 = t211 + t215;
        // spectrum block of 2
        const P t218 = t148 - t197;
        const P t219 = t148 + t197;
        // spectrum block of 2
        const P t220 = t218 + t186;
        const P t221 = t218 - t186;
        // spectrum block of 2
        const P t222 = t219 - t189;
        const P t223 = t219 + t189;
        // spectrum block of 17, multiplier 2
        const P t224 = x0_17 + t36;
        const P t225 = shuffled<0, 2>(t224, t200);
        const P t226 = shuffled<1, 3>(t224, t200);
        // spectrum block of 2
        const P t227 = t225 + t226;
        io.out(0, 32, t227);
        const P t228 = t225 - t226;
        io.out(17, 15, t228);
        const P t229 = shuffled<0, 2>(t213, t223);
        const P t230 = shuffled<1, 3>(t213, t223);
        // spectrum block of 2
        const P t231 = t229 + t230;
        io.out(30, 28, t231);
        const P t232 = t229 - t230;
        io.out(13, 11, t232);
        const P t233 = shuffled<0, 2>(t202, t221);
        const P t234 = shuffled<1, 3>(t202, t221);
        // spectrum block of 2
        const P t235 = t233 + t234;
        io.out(26, 24, t235);
        const P t236 = t233 - t234;
        io.out(9, 7, t236);
        const P t237 = shuffled<0, 2>(t206, t208);
        const P t238 = shuffled<1, 3>(t206, t208);
        // spectrum block of 2
        const P t239 = t237 + t238;
        io.out(22, 20, t239);
        const P t240 = t237 - t238;
        io.out(5, 3, t240);
        const P t241 = shuffled<0, 2>(t216, t217);
        const P t242 = shuffled<1, 3>(t216, t217);
        // spectrum block of 2
        const P t243 = t241 + t242;
        io.out(18, 16, t243);
        const P t244 = t241 - t242;
        io.out(1, 33, t244);
        const P t245 = shuffled<0, 2>(t209, t207);
        const P t246 = shuffled<1, 3>(t209, t207);
        // spectrum block of 2
        const P t247 = t245 + t246;
        io.out(14, 12, t247);
        const P t248 = t245 - t246;
        io.out(31, 29, t248);
        const P t249 = shuffled<0, 2>(t220, t203);
        const P t250 = shuffled<1, 3>(t220, t203);
        // spectrum block of 2
        const P t251 = t249 + t250;
        io.out(10, 8, t251);
        const P t252 = t249 - t250;
        io.out(27, 25, t252);
        const P t253 = shuffled<0, 2>(t222, t214);
        const P t254 = shuffled<1, 3>(t222, t214);
        // spectrum block of 2
        const P t255 = t253 + t254;
        io.out(6, 4, t255);
        const P t256 = t253 - t254;
        io.out(23, 21, t256);
        const V t257 = part<0>(t201);
        const V t258 = part<1>(t201);
        // spectrum block of 2
        const V t259 = t257 + t258;
        io.out(2, t259);
        const V t260 = t257 - t258;
        io.out(19, t260);
    }
};

}  // namespace zulg
