// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 54.
// Forward DFT of 54 real points, prime-factor 2, 27; up to four lanes to a register.
// 61 sums, 42 differences, 56 products of registers, which do the 656 steps of the graph, those with
// `scale` included; 89 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<54> {
    static constexpr int steps = 656;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.9396926207859084,  // c[4]: -cos 2 pi 4/9
        0.3420201433256687,  // c[5]: sin 2 pi 4/9
        0.5971585917027862,  // c[6]: cos 2 pi 4/27
        0.8021231927550437,  // c[7]: sin 2 pi 4/27
        0.28680323271109026,  // c[8]: -cos 2 pi 8/27
        0.9579895123154889,  // c[9]: sin 2 pi 8/27
        0.8936326403234123,  // c[10]: cos 2 pi 2/27
        0.44879918020046217,  // c[11]: sin 2 pi 2/27
        0.549508978070806,  // c[12]: -sin 2 pi 16/27
        0.8354878114129364,  // c[13]: -cos 2 pi 16/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x0_2_4_6 = io.in(0, 2, 4, 6);
        const Q x27_29_31_33 = io.in(27, 29, 31, 33);
        // real block of 2
        const Q t0 = x0_2_4_6 + x27_29_31_33;
        const Q t1 = x0_2_4_6 - x27_29_31_33;
        const Q x8_10_12_14 = io.in(8, 10, 12, 14);
        const Q x35_37_39_41 = io.in(35, 37, 39, 41);
        // real block of 2
        const Q t2 = x8_10_12_14 + x35_37_39_41;
        const Q t3 = x8_10_12_14 - x35_37_39_41;
        const Q x16_18_20_22 = io.in(16, 18, 20, 22);
        const Q x43_45_47_49 = io.in(43, 45, 47, 49);
        // real block of 2
        const Q t4 = x16_18_20_22 + x43_45_47_49;
        const Q t5 = x16_18_20_22 - x43_45_47_49;
        const Q x24_26_28_30 = io.in(24, 26, 28, 30);
        const Q x51_53_1_3 = io.in(51, 53, 1, 3);
        // real block of 2
        const Q t6 = x24_26_28_30 + x51_53_1_3;
        const Q t7 = x24_26_28_30 - x51_53_1_3;
        const Q x32_34_36_38 = io.in(32, 34, 36, 38);
        const Q x5_7_9_11 = io.in(5, 7, 9, 11);
        // real block of 2
        const Q t8 = x32_34_36_38 + x5_7_9_11;
        const Q t9 = x32_34_36_38 - x5_7_9_11;
        const Q x40_42_44_46 = io.in(40, 42, 44, 46);
        const Q x13_15_17_19 = io.in(13, 15, 17, 19);
        // real block of 2
        const Q t10 = x40_42_44_46 + x13_15_17_19;
        const Q t11 = x40_42_44_46 - x13_15_17_19;
        const P x48_50 = io.in(48, 50);
        const P x21_23 = io.in(21, 23);
        // real block of 2
        const P t12 = x48_50 + x21_23;
        const P t13 = x48_50 - x21_23;
        const V x52 = io.in(52);
        const V x25 = io.in(25);
        // real block of 2
        const V t14 = x52 + x25;
        const V t15 = x52 - x25;
        const Q t16 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t17 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t18 = shuffled<2, 3, 6, 7>(t16, t17);
        const Q t19 = shuffled<0, 4, 3, 7>(t10, t11);
        // real block of 3, multiplier 2
        const Q t20 = t18 + t19;
        const Q t21 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t22 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t23 = shuffled<2, 3, 4, 5>(t21, t22);
        const Q t24 = t20 + t23;
        const P t25 = part<0>(t8);
        const P t26 = part<0>(t9);
        const P t27 = shuffled<1, 3>(t25, t26);
        const P t28 = joined(t14, t15);
        // real block of 3, multiplier 2
        const P t29 = t27 + t28;
        const P t30 = part<0>(t4);
        const P t31 = part<0>(t5);
        const P t32 = shuffled<0, 2>(t30, t31);
        const P t33 = t29 + t32;
        const P t34 = part<1>(t24);
        const V t35 = part<0>(t34);
        const V t36 = part<0>(t33);
        // real block of 3, multiplier 2
        const V t37 = t35 + t36;
        const Q t38 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t39 = shuffled<0, 1, 4, 5>(t17, t38);
        const Q t40 = shuffled<1, 5, 2, 6>(t10, t11);
        // real block of 3, multiplier 2
        const Q t41 = t39 - t40;
        const Q t42 = t39 + t40;
        const Q t43 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t44 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t45 = shuffled<2, 3, 4, 5>(t43, t44);
        const Q t46 = c[0] * t42;
        const Q t47 = t45 - t46;
        const Q t48 = c[1] * t41;
        const Q t49 = shuffled<0, 4, 2, 6>(t47, t48);
        const Q t50 = shuffled<1, 5, 3, 7>(t47, t48);
        const Q t51 = shuffled<0, 1, 4, 5>(t49, t50);
        // real block of 9, multiplier 2
        const Q t52 = c[2] * t51;
        const Q t53 = shuffled<1, 0, 3, 2>(t51);
        const Q t54 = Q(c[3], -c[3], c[3], -c[3]) * t53;
        const Q t55 = t52 + t54;
        const Q t56 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t57 = shuffled<2, 3, 4, 5>(t38, t56);
        const P t58 = shuffled<0, 2>(t12, t13);
        const P t59 = shuffled<1, 3>(t12, t13);
        const Q t60 = joined(t58, t59);
        // real block of 3, multiplier 2
        const Q t61 = t57 - t60;
        const Q t62 = t57 + t60;
        const Q t63 = shuffled<2, 3, 6, 7>(t44, t22);
        const Q t64 = c[0] * t62;
        const Q t65 = t63 - t64;
        const Q t66 = c[1] * t61;
        const Q t67 = shuffled<0, 4, 2, 6>(t65, t66);
        const Q t68 = shuffled<1, 5, 3, 7>(t65, t66);
        const Q t69 = shuffled<0, 1, 4, 5>(t67, t68);
        // real block of 9, multiplier 2
        const Q t70 = Q(-c[4], c[4], -c[4], c[4]) * t69;
        const Q t71 = shuffled<1, 0, 3, 2>(t69);
        const Q t72 = c[5] * t71;
        const Q t73 = t70 + t72;
        const Q t74 = flipped<0, 1, 0, 1>(t73);
        // complex block of 3, multiplier 2
        const Q t75 = t55 + t74;
        const Q t76 = t55 - t74;
        const Q t77 = shuffled<1, 5, 2, 6>(t4, t5);
        const Q t78 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t79 = shuffled<2, 3, 6, 7>(t56, t78);
        // real block of 3, multiplier 2
        const Q t80 = t77 + t79;
        const Q t81 = shuffled<0, 1, 4, 5>(t21, t43);
        const Q t82 = c[0] * t80;
        const Q t83 = t81 - t82;
        const Q t84 = t77 - t79;
        const Q t85 = c[1] * t84;
        const Q t86 = shuffled<0, 4, 2, 6>(t83, t85);
        const Q t87 = shuffled<1, 5, 3, 7>(t83, t85);
        const Q t88 = shuffled<0, 1, 4, 5>(t86, t87);
        // complex block of 3, multiplier 2
        const Q t89 = t75 + t88;
        const Q t90 = c[0] * t75;
        const Q t91 = t88 - t90;
        const Q t92 = Q(-c[1], c[1], -c[1], c[1]) * t76;
        const Q t93 = shuffled<1, 0, 3, 2>(t92);
        const Q t94 = t91 + t93;
        const Q t95 = t91 - t93;
        // real block of 3, multiplier 2
        const Q t96 = t80 + t81;
        // real block of 3, multiplier 2
        const Q t97 = t42 + t45;
        // real block of 3, multiplier 2
        const Q t98 = t62 + t63;
        // real block of 3, multiplier 2
        const Q t99 = t97 + t98;
        const Q t100 = t97 - t98;
        const Q t101 = t99 + t96;
        const Q t102 = c[0] * t99;
        const Q t103 = t96 - t102;
        const Q t104 = shuffled<2, 3, 6, 7>(t49, t50);
        // real block of 9, multiplier 2
        const Q t105 = c[2] * t104;
        const Q t106 = shuffled<1, 0, 3, 2>(t104);
        const Q t107 = Q(c[3], -c[3], c[3], -c[3]) * t106;
        const Q t108 = t105 + t107;
        const Q t109 = shuffled<2, 3, 6, 7>(t67, t68);
        const Q t110 = Q(-c[4], c[4], -c[4], c[4]) * t109;
        const Q t111 = shuffled<1, 0, 3, 2>(t109);
        const Q t112 = c[5] * t111;
        const Q t113 = t110 + t112;
        const Q t114 = flipped<0, 1, 0, 1>(t113);
        // complex block of 3, multiplier 2
        const Q t115 = t108 + t114;
        const Q t116 = t108 - t114;
        const Q t117 = shuffled<2, 3, 6, 7>(t86, t87);
        const Q t118 = t115 + t117;
        const Q t119 = c[0] * t115;
        const Q t120 = t117 - t119;
        const Q t121 = Q(-c[1], c[1], -c[1], c[1]) * t116;
        const Q t122 = shuffled<1, 0, 3, 2>(t121);
        const Q t123 = t120 + t122;
        const Q t124 = t120 - t122;
        // real block of 3, multiplier 2
        const Q t125 = t18 - t19;
        const Q t126 = c[0] * t20;
        const Q t127 = t23 - t126;
        const V t128 = part<1>(t34);
        const V t129 = part<1>(t33);
        // real block of 3, multiplier 2
        const V t130 = t128 + t129;
        const Q t131 = shuffled<0, 1, 6, 7>(t78, t24);
        const Q t132 = joined(t28, t33);
        // real block of 3, multiplier 2
        const Q t133 = t131 - t132;
        const P t134 = joined(t37, t130);
        const P t135 = part<0>(t24);
        // real block of 3, multiplier 2
        const P t136 = t134 + t135;
        const Q t137 = joined(t32, t135);
        const Q t138 = joined(t29, t134);
        // real block of 3, multiplier 2
        const Q t139 = c[0] * t138;
        const Q t140 = t137 - t139;
        // real block of 3, multiplier 2
        const Q t141 = c[1] * t125;
        const Q t142 = shuffled<0, 4, 2, 6>(t127, t141);
        const Q t143 = shuffled<1, 5, 3, 7>(t127, t141);
        const Q t144 = shuffled<2, 3, 6, 7>(t142, t143);
        // real block of 9, multiplier 2
        const Q t145 = c[2] * t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t144);
        const Q t147 = Q(c[3], -c[3], c[3], -c[3]) * t146;
        const Q t148 = t145 + t147;
        // real block of 3, multiplier 2
        const Q t149 = c[1] * t133;
        const Q t150 = shuffled<0, 4, 2, 6>(t140, t149);
        const Q t151 = shuffled<1, 5, 3, 7>(t140, t149);
        const Q t152 = shuffled<0, 1, 4, 5>(t150, t151);
        // real block of 9, multiplier 2
        const Q t153 = Q(-c[4], c[4], -c[4], c[4]) * t152;
        const Q t154 = shuffled<1, 0, 3, 2>(t152);
        const Q t155 = c[5] * t154;
        const Q t156 = t153 + t155;
        const Q t157 = flipped<0, 1, 0, 1>(t156);
        // complex block of 3, multiplier 2
        const Q t158 = t148 + t157;
        const Q t159 = t148 - t157;
        const Q t160 = shuffled<0, 1, 4, 5>(t142, t143);
        const Q t161 = t158 + t160;
        const Q t162 = c[0] * t158;
        const Q t163 = t160 - t162;
        const Q t164 = Q(-c[1], c[1], -c[1], c[1]) * t159;
        const Q t165 = shuffled<1, 0, 3, 2>(t164);
        const Q t166 = t163 + t165;
        const Q t167 = t163 - t165;
        const P t168 = part<1>(t101);
        // real block of 3, multiplier 2
        const P t169 = t168 + t136;
        const P t170 = t168 - t136;
        const P t171 = part<0>(t101);
        const P t172 = t169 + t171;
        const V t173 = part<0>(t172);
        io.re(0, t173);
        const V t174 = part<1>(t172);
        io.re(27, t174);
        const P t175 = c[0] * t169;
        const P t176 = t171 - t175;
        const P t177 = P(c[1], -c[1]) * t170;
        const P t178 = shuffled<1, 3>(t176, t177);
        io.pair(9, t178);
        const P t179 = shuffled<0, 2>(t176, t177);
        io.pair(18, t179);
        // real block of 27, multiplier 2
        const Q t180 = c[10] * t118;
        const Q t181 = shuffled<1, 0, 3, 2>(t118);
        const Q t182 = Q(c[11], -c[11], c[11], -c[11]) * t181;
        const Q t183 = t180 + t182;
        const Q t184 = c[6] * t161;
        const Q t185 = shuffled<1, 0, 3, 2>(t161);
        const Q t186 = Q(c[7], -c[7], c[7], -c[7]) * t185;
        const Q t187 = t184 + t186;
        // complex block of 3, multiplier 2
        const Q t188 = t183 + t187;
        const Q t189 = t183 - t187;
        const Q t190 = t188 + t89;
        io.pairs(2, 25, negated<0, 0, 0, 1>(t190));
        const Q t191 = c[0] * t188;
        const Q t192 = t89 - t191;
        const Q t193 = Q(-c[1], c[1], -c[1], c[1]) * t189;
        const Q t194 = shuffled<1, 0, 3, 2>(t193);
        const Q t195 = t192 + t194;
        io.pairs(16, 11, negated<0, 1, 0, 0>(t195));
        const Q t196 = t192 - t194;
        io.pairs(20, 7, negated<0, 0, 0, 1>(t196));
        // real block of 27, multiplier 2
        const Q t197 = c[6] * t123;
        const Q t198 = shuffled<1, 0, 3, 2>(t123);
        const Q t199 = Q(-c[7], c[7], -c[7], c[7]) * t198;
        const Q t200 = t197 + t199;
        const Q t201 = c[8] * t166;
        const Q t202 = shuffled<1, 0, 3, 2>(t166);
        const Q t203 = Q(c[9], -c[9], c[9], -c[9]) * t202;
        const Q t204 = t201 + t203;
        const Q t205 = shuffled<0, 5, 2, 7>(t200, t204);
        const Q t206 = shuffled<0, 5, 2, 7>(t204, t200);
        // complex block of 3, multiplier 2
        const Q t207 = t205 - t206;
        const Q t208 = t200 + t204;
        const Q t209 = flipped<0, 1, 0, 1>(t94);
        const Q t210 = t207 + t209;
        io.pairs(4, 23, negated<0, 0, 0, 1>(t210));
        const Q t211 = Q(-c[0], c[0], -c[0], c[0]) * t207;
        const Q t212 = t94 + t211;
        const Q t213 = Q(c[1], -c[1], c[1], -c[1]) * t208;
        const Q t214 = shuffled<1, 0, 3, 2>(t213);
        const Q t215 = t212 + t214;
        io.pairs(14, 13, negated<0, 0, 0, 1>(t215));
        const Q t216 = shuffled<0, 5, 2, 7>(t212, t214);
        const Q t217 = shuffled<0, 5, 2, 7>(t214, t212);
        const Q t218 = t216 - t217;
        io.pairs(22, 5, negated<0, 0, 0, 1>(t218));
        // real block of 3, multiplier 2
        const Q t219 = c[1] * t100;
        const Q t220 = shuffled<0, 4, 2, 6>(t103, t219);
        const Q t221 = shuffled<1, 5, 3, 7>(t103, t219);
        const Q t222 = shuffled<2, 3, 6, 7>(t220, t221);
        // real block of 27, multiplier 2
        const Q t223 = c[2] * t222;
        const Q t224 = shuffled<1, 0, 3, 2>(t222);
        const Q t225 = Q(c[3], -c[3], c[3], -c[3]) * t224;
        const Q t226 = t223 + t225;
        const Q t227 = shuffled<2, 3, 6, 7>(t150, t151);
        const Q t228 = Q(-c[4], c[4], -c[4], c[4]) * t227;
        const Q t229 = shuffled<1, 0, 3, 2>(t227);
        const Q t230 = c[5] * t229;
        const Q t231 = t228 + t230;
        const Q t232 = flipped<0, 1, 0, 1>(t231);
        // complex block of 3, multiplier 2
        const Q t233 = t226 + t232;
        const Q t234 = t226 - t232;
        const Q t235 = shuffled<0, 1, 4, 5>(t220, t221);
        const Q t236 = t233 + t235;
        io.pairs(6, 21, negated<0, 0, 0, 1>(t236));
        const Q t237 = c[0] * t233;
        const Q t238 = t235 - t237;
        const Q t239 = Q(-c[1], c[1], -c[1], c[1]) * t234;
        const Q t240 = shuffled<1, 0, 3, 2>(t239);
        const Q t241 = t238 + t240;
        io.pairs(12, 15, negated<0, 1, 0, 0>(t241));
        const Q t242 = t238 - t240;
        io.pairs(24, 3, negated<0, 0, 0, 1>(t242));
        // real block of 27, multiplier 2
        const Q t243 = Q(-c[8], c[8], -c[8], c[8]) * t124;
        const Q t244 = shuffled<1, 0, 3, 2>(t124);
        const Q t245 = c[9] * t244;
        const Q t246 = t243 + t245;
        const Q t247 = shuffled<1, 0, 3, 2>(t167);
        const Q t248 = c[12] * t247;
        const Q t249 = Q(c[13], -c[13], c[13], -c[13]) * t167;
        const Q t250 = t248 + t249;
        const Q t251 = shuffled<0, 5, 2, 7>(t246, t250);
        const Q t252 = shuffled<0, 5, 2, 7>(t250, t246);
        // complex block of 3, multiplier 2
        const Q t253 = t251 - t252;
        const Q t254 = t246 + t250;
        const Q t255 = t253 + t95;
        io.pairs(8, 19, negated<0, 0, 0, 1>(t255));
        const Q t256 = c[0] * t253;
        const Q t257 = t95 - t256;
        const Q t258 = c[1] * t254;
        const Q t259 = shuffled<1, 0, 3, 2>(t258);
        const Q t260 = t257 - t259;
        io.pairs(10, 17, negated<0, 1, 0, 0>(t260));
        const Q t261 = t257 + t259;
        io.pairs(26, 1, negated<0, 0, 0, 1>(t261));
    }
};

}  // namespace zulg
