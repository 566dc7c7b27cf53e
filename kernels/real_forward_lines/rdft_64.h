// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 64.
// Forward DFT of 64 real points, twiddled 16, 4; up to four lanes to a register.
// 61 sums, 46 differences, 35 products of registers, which do the 594 steps of the graph, those with
// `scale` included; 69 shuffles, 16 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<64> {
    static constexpr int steps = 594;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.9807852804032304,  // c[3]: cos 2 pi 2/64
        0.19509032201612828,  // c[4]: sin 2 pi 2/64
        0.8314696123025452,  // c[5]: cos 2 pi 6/64
        0.5555702330196022,  // c[6]: sin 2 pi 6/64
        0.9951847266721969,  // c[7]: cos 2 pi 1/64
        0.0980171403295606,  // c[8]: sin 2 pi 1/64
        0.9569403357322088,  // c[9]: cos 2 pi 3/64
        0.2902846772544624,  // c[10]: sin 2 pi 3/64
        0.773010453362737,  // c[11]: sin 2 pi 9/64
        0.6343932841636455,  // c[12]: cos 2 pi 9/64
        0.47139673682599764,  // c[13]: sin 2 pi 5/64
        0.881921264348355,  // c[14]: cos 2 pi 5/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x0_1_2_3 = io.in(0, 1, 2, 3);
        const Q x32_33_34_35 = io.in(32, 33, 34, 35);
        // real block of 2
        const Q t0 = x0_1_2_3 + x32_33_34_35;
        const Q t1 = x0_1_2_3 - x32_33_34_35;
        const Q x8_9_10_11 = io.in(8, 9, 10, 11);
        const Q x40_41_42_43 = io.in(40, 41, 42, 43);
        // real block of 2
        const Q t2 = x8_9_10_11 - x40_41_42_43;
        const Q x24_25_26_27 = io.in(24, 25, 26, 27);
        const Q x56_57_58_59 = io.in(56, 57, 58, 59);
        // real block of 2
        const Q t3 = x24_25_26_27 - x56_57_58_59;
        // real block of 2
        const Q t4 = x8_9_10_11 + x40_41_42_43;
        // real block of 2
        const Q t5 = x24_25_26_27 + x56_57_58_59;
        // real block of 16
        const Q t6 = t2 - t3;
        const Q t7 = t3 + t2;
        const Q x16_17_18_19 = io.in(16, 17, 18, 19);
        const Q x48_49_50_51 = io.in(48, 49, 50, 51);
        // real block of 2
        const Q t8 = x16_17_18_19 + x48_49_50_51;
        const Q t9 = x16_17_18_19 - x48_49_50_51;
        // real block of 2
        const Q t10 = t0 + t8;
        // real block of 2
        const Q t11 = t4 + t5;
        // real block of 2
        const Q t12 = t10 + t11;
        const Q t13 = t10 - t11;
        // real block of 2
        const Q t14 = t0 - t8;
        // real block of 2
        const Q t15 = t4 - t5;
        // real block of 16
        const Q t16 = c[2] * t6;
        // complex block of 2
        const Q t17 = t1 + t16;
        const Q t18 = t1 - t16;
        // real block of 16
        const Q t19 = c[2] * t7;
        // complex block of 2
        const Q t20 = t9 + t19;
        const Q t21 = t19 - t9;
        const Q x4_5_6_7 = io.in(4, 5, 6, 7);
        const Q x36_37_38_39 = io.in(36, 37, 38, 39);
        // real block of 2
        const Q t22 = x4_5_6_7 + x36_37_38_39;
        const Q t23 = x4_5_6_7 - x36_37_38_39;
        const Q x20_21_22_23 = io.in(20, 21, 22, 23);
        const Q x52_53_54_55 = io.in(52, 53, 54, 55);
        // real block of 2
        const Q t24 = x20_21_22_23 + x52_53_54_55;
        const Q t25 = x20_21_22_23 - x52_53_54_55;
        // real block of 2
        const Q t26 = t22 - t24;
        const Q x12_13_14_15 = io.in(12, 13, 14, 15);
        const Q x44_45_46_47 = io.in(44, 45, 46, 47);
        // real block of 2
        const Q t27 = x12_13_14_15 + x44_45_46_47;
        const Q t28 = x12_13_14_15 - x44_45_46_47;
        const Q x28_29_30_31 = io.in(28, 29, 30, 31);
        const Q x60_61_62_63 = io.in(60, 61, 62, 63);
        // real block of 2
        const Q t29 = x28_29_30_31 + x60_61_62_63;
        const Q t30 = x28_29_30_31 - x60_61_62_63;
        // real block of 2
        const Q t31 = t27 - t29;
        // real block of 2
        const Q t32 = t22 + t24;
        // real block of 2
        const Q t33 = t27 + t29;
        // real block of 2
        const Q t34 = t32 + t33;
        const Q t35 = t32 - t33;
        // real block of 16
        const Q t36 = c[0] * t23;
        const Q t37 = c[1] * t25;
        const Q t38 = t36 - t37;
        const Q t39 = c[1] * t28;
        const Q t40 = c[0] * t30;
        const Q t41 = t39 - t40;
        // complex block of 2
        const Q t42 = t38 + t41;
        const Q t43 = t38 - t41;
        // real block of 16
        const Q t44 = c[0] * t25;
        const Q t45 = c[1] * t23;
        const Q t46 = t44 + t45;
        const Q t47 = c[1] * t30;
        const Q t48 = c[0] * t28;
        const Q t49 = t47 + t48;
        // complex block of 2
        const Q t50 = t46 + t49;
        const Q t51 = t49 - t46;
        // skew block of 4
        const Q t52 = t26 - t31;
        const Q t53 = t26 + t31;
        // real block of 2
        const Q t54 = t12 + t34;
        const P t55 = part<0>(t54);
        const P t56 = part<1>(t54);
        // real block of 2
        const P t57 = t55 + t56;
        const P t58 = t55 - t56;
        io.pair(16, negated<0, 1>(t58));
        const V t59 = part<0>(t57);
        const V t60 = part<1>(t57);
        // real block of 2
        const V t61 = t59 + t60;
        io.re(0, t61);
        const V t62 = t59 - t60;
        io.re(32, t62);
        // real block of 2
        const Q t63 = t12 - t34;
        const P t64 = part<0>(t63);
        const V t65 = part<1>(t64);
        const P t66 = part<1>(t63);
        const V t67 = part<1>(t66);
        // skew block of 4
        const V t68 = t65 - t67;
        const V t69 = t65 + t67;
        const V t70 = part<0>(t64);
        const V t71 = c[2] * t68;
        const V t72 = t70 + t71;
        const V t73 = t70 - t71;
        const V t74 = c[2] * t69;
        const V t75 = part<0>(t66);
        const V t76 = t74 - t75;
        const V t77 = flipped<1>(t76);
        const P t78 = joined(t73, t77);
        io.pair(24, t78);
        const V t79 = t75 + t74;
        const V t80 = flipped<1>(t79);
        const P t81 = joined(t72, t80);
        io.pair(8, t81);
        // complex block of 2
        const Q t82 = t17 + t42;
        const Q t83 = t20 + t50;
        // skew block of 4
        const Q t84 = c[2] * t52;
        const Q t85 = t14 + t84;
        const Q t86 = c[2] * t53;
        const Q t87 = t15 + t86;
        const Q t88 = shuffled<1, 5, 3, 7>(t82, t83);
        const Q t89 = shuffled<1, 5, 3, 7>(t85, t87);
        const Q t90 = shuffled<0, 1, 4, 5>(t88, t89);
        // real block of 64
        const Q t91 = Q(c[7], c[7], c[3], c[3]) * t90;
        const Q t92 = shuffled<1, 0, 3, 2>(t90);
        const Q t93 = Q(-c[8], c[8], -c[4], c[4]) * t92;
        const Q t94 = t91 + t93;
        const Q t95 = shuffled<0, 4, 2, 6>(t82, t83);
        const Q t96 = shuffled<0, 4, 2, 6>(t85, t87);
        const Q t97 = shuffled<2, 3, 6, 7>(t95, t96);
        const Q t98 = Q(c[3], c[3], c[0], c[0]) * t97;
        const Q t99 = shuffled<1, 0, 3, 2>(t97);
        const Q t100 = Q(-c[4], c[4], -c[1], c[1]) * t99;
        const Q t101 = t98 + t100;
        const Q t102 = shuffled<2, 3, 6, 7>(t88, t89);
        const Q t103 = Q(c[9], c[9], c[5], c[5]) * t102;
        const Q t104 = shuffled<1, 0, 3, 2>(t102);
        const Q t105 = Q(-c[10], c[10], -c[6], c[6]) * t104;
        const Q t106 = t103 + t105;
        const Q t107 = shuffled<0, 1, 4, 5>(t95, t96);
        // complex block of 2
        const Q t108 = t107 + t101;
        // complex block of 2
        const Q t109 = t94 + t106;
        // complex block of 2
        const Q t110 = t108 + t109;
        io.pairs(1, 2, negated<0, 1, 0, 1>(t110));
        const Q t111 = shuffled<0, 5, 2, 7>(t108, t109);
        const Q t112 = shuffled<0, 5, 2, 7>(t109, t108);
        const Q t113 = t111 - t112;
        io.pairs(31, 30, negated<0, 1, 0, 1>(t113));
        const Q t114 = shuffled<0, 5, 2, 7>(t107, t101);
        const Q t115 = shuffled<0, 5, 2, 7>(t101, t107);
        // complex block of 2
        const Q t116 = t114 - t115;
        const Q t117 = shuffled<0, 5, 2, 7>(t94, t106);
        const Q t118 = shuffled<0, 5, 2, 7>(t106, t94);
        // complex block of 2
        const Q t119 = t117 - t118;
        const Q t120 = shuffled<1, 0, 3, 2>(t119);
        const Q t121 = flipped<0, 1, 0, 1>(t120);
        // complex block of 2
        const Q t122 = t116 + t121;
        io.pairs(17, 18, t122);
        const Q t123 = t116 - t121;
        io.pairs(15, 14, negated<0, 1, 0, 1>(t123));
        // complex block of 2
        const Q t124 = t17 - t42;
        const Q t125 = t50 - t20;
        // skew block of 4
        const Q t126 = t86 - t15;
        const Q t127 = t14 - t84;
        const Q t128 = shuffled<1, 5, 3, 7>(t127, t126);
        const Q t129 = shuffled<1, 5, 3, 7>(t124, t125);
        const Q t130 = shuffled<0, 1, 4, 5>(t128, t129);
        // real block of 64
        const Q t131 = Q(c[5], c[5], c[11], c[11]) * t130;
        const Q t132 = shuffled<1, 0, 3, 2>(t130);
        const Q t133 = Q(-c[6], c[6], -c[12], c[12]) * t132;
        const Q t134 = t131 + t133;
        const Q t135 = shuffled<0, 4, 2, 6>(t127, t126);
        const Q t136 = shuffled<0, 4, 2, 6>(t124, t125);
        const Q t137 = shuffled<2, 3, 6, 7>(t135, t136);
        const Q t138 = Q(c[1], c[1], c[4], c[4]) * t137;
        const Q t139 = shuffled<1, 0, 3, 2>(t137);
        const Q t140 = Q(-c[0], c[0], -c[3], c[3]) * t139;
        const Q t141 = t138 + t140;
        const Q t142 = shuffled<2, 3, 6, 7>(t128, t129);
        const Q t143 = Q(c[4], c[4], c[13], c[13]) * t142;
        const Q t144 = shuffled<1, 0, 3, 2>(t142);
        const Q t145 = Q(c[3], -c[3], c[14], -c[14]) * t144;
        const Q t146 = t143 + t145;
        const Q t147 = shuffled<0, 1, 4, 5>(t135, t136);
        // complex block of 2
        const Q t148 = t147 + t141;
        const Q t149 = shuffled<0, 5, 2, 7>(t134, t146);
        const Q t150 = shuffled<0, 5, 2, 7>(t146, t134);
        // complex block of 2
        const Q t151 = t149 - t150;
        const Q t152 = flipped<0, 1, 0, 1>(t148);
        // complex block of 2
        const Q t153 = t151 + t152;
        io.pairs(6, 7, t153);
        const Q t154 = flipped<1, 0, 1, 0>(t151);
        const Q t155 = t148 + t154;
        io.pairs(26, 25, t155);
        const Q t156 = shuffled<0, 5, 2, 7>(t147, t141);
        const Q t157 = shuffled<0, 5, 2, 7>(t141, t147);
        // complex block of 2
        const Q t158 = t156 - t157;
        // complex block of 2
        const Q t159 = t134 + t146;
        const Q t160 = shuffled<1, 0, 3, 2>(t159);
        // complex block of 2
        const Q t161 = t158 - t160;
        io.pairs(22, 23, t161);
        const Q t162 = t158 + t160;
        io.pairs(10, 9, negated<0, 1, 0, 1>(t162));
        // complex block of 2
        const Q t163 = t18 + t51;
        const Q t164 = t21 - t43;
        const Q t165 = t18 - t51;
        const Q t166 = t21 + t43;
        const Q t167 = shuffled<1, 5, 3, 7>(t165, t166);
        const Q t168 = shuffled<1, 5, 3, 7>(t163, t164);
        const Q t169 = shuffled<0, 1, 4, 5>(t167, t168);
        // real block of 64
        const Q t170 = Q(c[9], c[9], c[14], c[14]) * t169;
        const Q t171 = shuffled<1, 0, 3, 2>(t169);
        const Q t172 = Q(-c[10], c[10], c[13], -c[13]) * t171;
        const Q t173 = t170 + t172;
        const Q t174 = shuffled<0, 4, 2, 6>(t165, t166);
        const Q t175 = shuffled<0, 4, 2, 6>(t163, t164);
        const Q t176 = shuffled<2, 3, 6, 7>(t174, t175);
        const Q t177 = Q(c[5], c[5], c[6], c[6]) * t176;
        const Q t178 = shuffled<1, 0, 3, 2>(t176);
        const Q t179 = Q(-c[6], c[6], c[5], -c[5]) * t178;
        const Q t180 = t177 + t179;
        const Q t181 = shuffled<2, 3, 6, 7>(t167, t168);
        const Q t182 = Q(c[12], c[12], c[8], c[8]) * t181;
        const Q t183 = shuffled<1, 0, 3, 2>(t181);
        const Q t184 = Q(-c[11], c[11], c[7], -c[7]) * t183;
        const Q t185 = t182 + t184;
        const Q t186 = shuffled<0, 1, 4, 5>(t174, t175);
        // complex block of 2
        const Q t187 = t186 + t180;
        // complex block of 2
        const Q t188 = t173 + t185;
        // complex block of 2
        const Q t189 = t187 + t188;
        io.pairs(3, 5, negated<0, 1, 0, 0>(t189));
        const Q t190 = flipped<0, 1, 0, 0>(t187);
        const Q t191 = flipped<0, 1, 0, 0>(t188);
        const Q t192 = t190 - t191;
        io.pairs(29, 27, negated<0, 1, 0, 1>(t192));
        const Q t193 = flipped<0, 1, 0, 0>(t186);
        const Q t194 = flipped<0, 1, 0, 0>(t180);
        // complex block of 2
        const Q t195 = t193 - t194;
        const Q t196 = flipped<0, 1, 0, 0>(t173);
        const Q t197 = flipped<0, 1, 0, 0>(t185);
        // complex block of 2
        const Q t198 = t196 - t197;
        const Q t199 = shuffled<1, 0, 3, 2>(t198);
        const Q t200 = flipped<0, 1, 0, 1>(t199);
        // complex block of 2
        const Q t201 = t195 + t200;
        io.pairs(19, 21, t201);
        const Q t202 = t195 - t200;
        io.pairs(13, 11, negated<0, 1, 0, 1>(t202));
        const P t203 = part<1>(t35);
        const P t204 = shuffled<0, 0>(t203);
        const P t205 = flipped<1, 0>(t204);
        const P t206 = part<1>(t13);
        const P t207 = shuffled<0, 0>(t206);
        // real block of 64
        const P t208 = t205 + t207;
        const Q t209 = shuffled<1, 5, 3, 7>(t13, t35);
        const Q t210 = shuffled<1, 5, 3, 7>(t13, t35);
        const Q t211 = shuffled<2, 3, 4, 5>(t209, t210);
        const Q t212 = Q(c[1], c[1], c[0], c[0]) * t211;
        const Q t213 = shuffled<1, 0, 3, 2>(t211);
        const Q t214 = Q(-c[0], c[0], -c[1], c[1]) * t213;
        const Q t215 = t212 + t214;
        const Q t216 = shuffled<0, 4, 2, 6>(t13, t35);
        const Q t217 = shuffled<0, 1, 6, 7>(t216, t215);
        const P t218 = c[2] * t208;
        const P t219 = part<0>(t215);
        const Q t220 = joined(t218, t219);
        // complex block of 2
        const Q t221 = t217 + t220;
        const Q t222 = shuffled<0, 5, 2, 7>(t217, t220);
        const Q t223 = shuffled<0, 5, 2, 7>(t220, t217);
        const Q t224 = t222 - t223;
        const Q t225 = shuffled<0, 1, 4, 5>(t221, t224);
        const Q t226 = shuffled<1, 0, 3, 2>(t224);
        const Q t227 = shuffled<2, 3, 6, 7>(t221, t226);
        const Q t228 = flipped<0, 0, 0, 1>(t227);
        // complex block of 2
        const Q t229 = t225 + t228;
        io.pairs(4, 20, negated<0, 1, 0, 0>(t229));
        const Q t230 = flipped<0, 1, 0, 0>(t225);
        const Q t231 = flipped<1, 0, 1, 1>(t228);
        const Q t232 = t230 + t231;
        io.pairs(28, 12, negated<0, 1, 0, 1>(t232));
    }
};

}  // namespace zulg
