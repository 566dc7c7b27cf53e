// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 34.
// Forward DFT of 34 real points, prime-factor 2, 17; two lanes to a register.
// 67 sums, 67 differences, 54 products of registers, which do the 408 steps of the graph, those with
// `scale` included; 34 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<34> {
    static constexpr int steps = 408;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.09543059459065593,  // c[3]: P[1] of 17
        0.506476062234015,  // c[4]: -Q[1] of 17
        0.347088927763506,  // c[5]: P[2] of 17
        0.3809911760447736,  // c[6]: Q[2] of 17
        0.3049677689722511,  // c[7]: P[3] of 17
        0.4154752217498508,  // c[8]: Q[3] of 17
        0.31717619283272513,  // c[9]: -P[4] of 17
        0.40623178445333147,  // c[10]: -Q[4] of 17
        0.4374199883186445,  // c[11]: P[5] of 17
        0.27255963351038787,  // c[12]: -Q[5] of 17
        0.5139020806887744,  // c[13]: P[6] of 17
        0.039110758925753275,  // c[14]: -Q[6] of 17
        0.4116323317536197,  // c[15]: P[7] of 17
        0.3101351696520051,  // c[16]: -Q[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_2 = io.in(0, 2);
        const P x17_19 = io.in(17, 19);
        // real block of 2
        const P t0 = x0_2 + x17_19;
        const P t1 = x0_2 - x17_19;
        const P x4_6 = io.in(4, 6);
        const P x21_23 = io.in(21, 23);
        // real block of 2
        const P t2 = x4_6 + x21_23;
        const P t3 = x4_6 - x21_23;
        const P x8_10 = io.in(8, 10);
        const P x25_27 = io.in(25, 27);
        // real block of 2
        const P t4 = x8_10 + x25_27;
        const P t5 = x8_10 - x25_27;
        const P x12_14 = io.in(12, 14);
        const P x29_31 = io.in(29, 31);
        // real block of 2
        const P t6 = x12_14 + x29_31;
        const P t7 = x12_14 - x29_31;
        const P x16_18 = io.in(16, 18);
        const P x33_1 = io.in(33, 1);
        // real block of 2
        const P t8 = x16_18 + x33_1;
        const P t9 = x16_18 - x33_1;
        const P x20_22 = io.in(20, 22);
        const P x3_5 = io.in(3, 5);
        // real block of 2
        const P t10 = x20_22 + x3_5;
        const P t11 = x20_22 - x3_5;
        const P x24_26 = io.in(24, 26);
        const P x7_9 = io.in(7, 9);
        // real block of 2
        const P t12 = x24_26 + x7_9;
        const P t13 = x24_26 - x7_9;
        const P x28_30 = io.in(28, 30);
        const P x11_13 = io.in(11, 13);
        // real block of 2
        const P t14 = x28_30 + x11_13;
        const P t15 = x28_30 - x11_13;
        const V x32 = io.in(32);
        const V x15 = io.in(15);
        // real block of 2
        const V t16 = x32 + x15;
        const V t17 = x32 - x15;
        const P t18 = shuffled<1, 3>(t0, t1);
        const P t19 = joined(t16, t17);
        // real block of 2
        const P t20 = t18 + t19;
        const P t21 = t18 - t19;
        const P t22 = shuffled<1, 3>(t12, t13);
        const P t23 = shuffled<0, 2>(t4, t5);
        // real block of 2
        const P t24 = t22 + t23;
        const P t25 = t22 - t23;
        // real block of 2
        const P t26 = t20 + t24;
        const P t27 = t20 - t24;
        const P t28 = shuffled<1, 3>(t2, t3);
        const P t29 = shuffled<0, 2>(t14, t15);
        // real block of 2
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        const P t32 = shuffled<1, 3>(t4, t5);
        const P t33 = shuffled<0, 2>(t12, t13);
        // real block of 2
        const P t34 = t32 + t33;
        const P t35 = t32 - t33;
        // real block of 2
        const P t36 = t30 + t34;
        const P t37 = t30 - t34;
        const P t38 = shuffled<1, 3>(t8, t9);
        const P t39 = shuffled<0, 2>(t8, t9);
        // real block of 2
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = shuffled<1, 3>(t14, t15);
        const P t43 = shuffled<0, 2>(t2, t3);
        // real block of 2
        const P t44 = t42 + t43;
        const P t45 = t42 - t43;
        // real block of 2
        const P t46 = t40 + t44;
        const P t47 = t40 - t44;
        const P t48 = shuffled<0, 2>(t10, t11);
        const P t49 = shuffled<1, 3>(t6, t7);
        // real block of 2
        const P t50 = t48 + t49;
        const P t51 = t48 - t49;
        const P t52 = shuffled<1, 3>(t10, t11);
        const P t53 = shuffled<0, 2>(t6, t7);
        // real block of 2
        const P t54 = t52 + t53;
        const P t55 = t52 - t53;
        // real block of 2
        const P t56 = t50 + t54;
        const P t57 = t50 - t54;
        // real block of 2
        const P t58 = t26 + t46;
        const P t59 = t26 - t46;
        // real block of 2
        const P t60 = t36 + t56;
        const P t61 = t36 - t56;
        // real block of 2
        const P t62 = t58 + t60;
        const P t63 = t58 - t60;
        // real block of 16
        const P t64 = c[0] * t31;
        const P t65 = c[1] * t35;
        const P t66 = t64 - t65;
        const P t67 = c[0] * t35;
        const P t68 = c[1] * t31;
        const P t69 = t67 + t68;
        const P t70 = t41 - t45;
        const P t71 = t45 + t41;
        const P t72 = c[1] * t51;
        const P t73 = c[0] * t55;
        const P t74 = t72 - t73;
        const P t75 = c[1] * t55;
        const P t76 = c[0] * t51;
        const P t77 = t75 + t76;
        const P t78 = c[2] * t70;
        // complex block of 2
        const P t79 = t21 + t78;
        // real block of 16
        const P t80 = c[2] * t71;
        // complex block of 2
        const P t81 = t25 + t80;
        const P t82 = t21 - t78;
        const P t83 = t80 - t25;
        // complex block of 2
        const P t84 = t66 + t74;
        const P t85 = t69 + t77;
        const P t86 = t66 - t74;
        const P t87 = t77 - t69;
        // complex block of 2
        const P t88 = t79 + t84;
        const P t89 = t81 + t85;
        const P t90 = t79 - t84;
        const P t91 = t85 - t81;
        // complex block of 2
        const P t92 = t82 + t87;
        const P t93 = t83 - t86;
        const P t94 = t82 - t87;
        const P t95 = t83 + t86;
        // skew block of 4
        const P t96 = t37 - t57;
        const P t97 = t37 + t57;
        const P t98 = c[2] * t97;
        const P t99 = t98 - t47;
        const P t100 = c[2] * t96;
        const P t101 = t27 + t100;
        const P t102 = t47 + t98;
        const P t103 = t27 - t100;
        const P t104 = shuffled<0, 2>(t0, t1);
        // real block of 17, multiplier 2
        const P t105 = t104 + t62;
        const V t106 = part<0>(t105);
        io.re(0, t106);
        const V t107 = part<1>(t105);
        io.re(17, t107);
        const P t108 = c[17] * t62;
        const P t109 = t104 - t108;
        const P t110 = c[3] * t88;
        const P t111 = c[4] * t89;
        const P t112 = t110 - t111;
        const P t113 = c[3] * t89;
        const P t114 = c[4] * t88;
        const P t115 = t113 + t114;
        const P t116 = c[5] * t101;
        const P t117 = c[6] * t102;
        const P t118 = t116 + t117;
        const P t119 = c[6] * t101;
        const P t120 = c[5] * t102;
        const P t121 = t119 - t120;
        const P t122 = c[7] * t94;
        const P t123 = c[8] * t95;
        const P t124 = t122 + t123;
        const P t125 = c[8] * t94;
        const P t126 = c[7] * t95;
        const P t127 = t125 - t126;
        const P t128 = c[9] * t59;
        const P t129 = c[10] * t61;
        const P t130 = t128 + t129;
        const P t131 = c[9] * t61;
        const P t132 = c[10] * t59;
        const P t133 = t131 - t132;
        const P t134 = c[11] * t92;
        const P t135 = c[12] * t93;
        const P t136 = t134 + t135;
        const P t137 = c[11] * t93;
        const P t138 = c[12] * t92;
        const P t139 = t137 - t138;
        const P t140 = c[13] * t103;
        const P t141 = c[14] * t99;
        const P t142 = t140 - t141;
        const P t143 = c[13] * t99;
        const P t144 = c[14] * t103;
        const P t145 = t143 + t144;
        const P t146 = c[15] * t90;
        const P t147 = c[16] * t91;
        const P t148 = t146 - t147;
        const P t149 = c[15] * t91;
        const P t150 = c[16] * t90;
        const P t151 = t149 + t150;
        const P t152 = c[18] * t63;
        // spectrum block of 2
        const P t153 = t109 + t152;
        const P t154 = t109 - t152;
        // spectrum block of 2
        const P t155 = t153 - t130;
        const P t156 = t153 + t130;
        // spectrum block of 2
        const P t157 = t154 - t133;
        const P t158 = t154 + t133;
        // mirrored skew block of 4
        const P t159 = t118 - t142;
        const P t160 = t121 - t145;
        const P t161 = t118 + t142;
        const P t162 = c[2] * t159;
        const P t163 = c[2] * t160;
        const P t164 = t162 - t163;
        const P t165 = t121 + t145;
        const P t166 = t162 + t163;
        // spectrum block of 2
        const P t167 = t155 + t161;
        const P t168 = t155 - t161;
        // spectrum block of 2
        const P t169 = t157 + t164;
        const P t170 = t157 - t164;
        // spectrum block of 2
        const P t171 = t156 - t165;
        const P t172 = t156 + t165;
        // spectrum block of 2
        const P t173 = t158 - t166;
        const P t174 = t158 + t166;
        // complex block of 2
        const P t175 = t148 - t112;
        const P t176 = t115 + t151;
        const P t177 = t112 + t148;
        const P t178 = t151 - t115;
        // complex block of 2
        const P t179 = t124 - t136;
        const P t180 = t139 + t127;
        const P t181 = t136 + t124;
        const P t182 = t139 - t127;
        // complex block of 2
        const P t183 = t175 + t179;
        const P t184 = shuffled<0, 2>(t168, t183);
        io.pair(8, negated<0, 1>(t184));
        const P t185 = shuffled<1, 3>(t168, t183);
        io.pair(9, t185);
        const P t186 = t180 - t176;
        const P t187 = shuffled<0, 2>(t167, t186);
        io.pair(2, t187);
        const P t188 = shuffled<1, 3>(t167, t186);
        io.pair(15, negated<0, 1>(t188));
        const P t189 = t175 - t179;
        const P t190 = t176 + t180;
        // complex block of 2
        const P t191 = t182 - t177;
        const P t192 = t178 + t181;
        const P t193 = t177 + t182;
        const P t194 = t178 - t181;
        // mirrored skew block of 8
        const P t195 = c[0] * t192;
        const P t196 = c[1] * t191;
        const P t197 = t195 - t196;
        const P t198 = shuffled<1, 3>(t169, t197);
        io.pair(5, negated<0, 1>(t198));
        const P t199 = shuffled<0, 2>(t169, t197);
        io.pair(12, t199);
        const P t200 = c[0] * t191;
        const P t201 = c[1] * t192;
        const P t202 = t200 + t201;
        const P t203 = shuffled<1, 3>(t170, t202);
        io.pair(3, t203);
        const P t204 = shuffled<0, 2>(t170, t202);
        io.pair(14, negated<0, 1>(t204));
        const P t205 = c[2] * t189;
        const P t206 = c[2] * t190;
        const P t207 = t205 - t206;
        const P t208 = shuffled<1, 3>(t172, t207);
        io.pair(1, t208);
        const P t209 = shuffled<0, 2>(t172, t207);
        io.pair(16, negated<0, 1>(t209));
        const P t210 = t205 + t206;
        const P t211 = shuffled<0, 2>(t171, t210);
        io.pair(4, negated<0, 1>(t211));
        const P t212 = shuffled<1, 3>(t171, t210);
        io.pair(13, t212);
        const P t213 = c[1] * t194;
        const P t214 = c[0] * t193;
        const P t215 = t213 + t214;
        const P t216 = shuffled<1, 3>(t173, t215);
        io.pair(7, t216);
        const P t217 = shuffled<0, 2>(t173, t215);
        io.pair(10, negated<0, 1>(t217));
        const P t218 = c[0] * t194;
        const P t219 = c[1] * t193;
        const P t220 = t218 - t219;
        const P t221 = shuffled<0, 2>(t174, t220);
        io.pair(6, t221);
        const P t222 = shuffled<1, 3>(t174, t220);
        io.pair(11, negated<0, 1>(t222));
    }
};

}  // namespace zulg
