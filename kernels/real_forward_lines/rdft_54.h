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
        const Q x24_26_28_30 = io.in(24, 26, 28, 30);
        const Q x51_53_1_3 = io.in(51, 53, 1, 3);
        // real block of 2
        const Q t2 = x24_26_28_30 + x51_53_1_3;
        const Q t3 = x24_26_28_30 - x51_53_1_3;
        const Q x32_34_36_38 = io.in(32, 34, 36, 38);
        const Q x5_7_9_11 = io.in(5, 7, 9, 11);
        // real block of 2
        const Q t4 = x32_34_36_38 + x5_7_9_11;
        const Q t5 = x32_34_36_38 - x5_7_9_11;
        const Q x40_42_44_46 = io.in(40, 42, 44, 46);
        const Q x13_15_17_19 = io.in(13, 15, 17, 19);
        // real block of 2
        const Q t6 = x40_42_44_46 + x13_15_17_19;
        const Q t7 = x40_42_44_46 - x13_15_17_19;
        const Q x16_18_20_22 = io.in(16, 18, 20, 22);
        const Q x43_45_47_49 = io.in(43, 45, 47, 49);
        // real block of 2
        const Q t8 = x16_18_20_22 + x43_45_47_49;
        const Q t9 = x16_18_20_22 - x43_45_47_49;
        const P x48_50 = io.in(48, 50);
        const P x21_23 = io.in(21, 23);
        // real block of 2
        const P t10 = x48_50 + x21_23;
        const P t11 = x48_50 - x21_23;
        const V x52 = io.in(52);
        const V x25 = io.in(25);
        // real block of 2
        const V t12 = x52 + x25;
        const V t13 = x52 - x25;
        const Q t14 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t15 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t16 = shuffled<2, 3, 6, 7>(t14, t15);
        const Q t17 = shuffled<0, 4, 3, 7>(t6, t7);
        // real block of 3, multiplier 2
        const Q t18 = t16 + t17;
        const P t19 = part<0>(t4);
        const P t20 = part<0>(t5);
        const P t21 = shuffled<1, 3>(t19, t20);
        const P t22 = joined(t12, t13);
        // real block of 3, multiplier 2
        const P t23 = t21 + t22;
        const Q t24 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t25 = shuffled<0, 1, 4, 5>(t15, t24);
        const Q t26 = shuffled<1, 5, 2, 6>(t6, t7);
        // real block of 3, multiplier 2
        const Q t27 = t25 + t26;
        const Q t28 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t29 = shuffled<2, 3, 4, 5>(t24, t28);
        const P t30 = shuffled<0, 2>(t10, t11);
        const P t31 = shuffled<1, 3>(t10, t11);
        const Q t32 = joined(t30, t31);
        // real block of 3, multiplier 2
        const Q t33 = t29 + t32;
        const Q x8_10_12_14 = io.in(8, 10, 12, 14);
        const Q x35_37_39_41 = io.in(35, 37, 39, 41);
        // real block of 2
        const Q t34 = x8_10_12_14 + x35_37_39_41;
        const Q t35 = x8_10_12_14 - x35_37_39_41;
        const Q t36 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t37 = shuffled<1, 5, 3, 7>(t34, t35);
        const Q t38 = shuffled<2, 3, 4, 5>(t36, t37);
        // real block of 3, multiplier 2
        const Q t39 = t18 + t38;
        const P t40 = part<0>(t8);
        const P t41 = part<0>(t9);
        const P t42 = shuffled<0, 2>(t40, t41);
        // real block of 3, multiplier 2
        const P t43 = t23 + t42;
        const P t44 = part<1>(t39);
        const V t45 = part<0>(t44);
        const V t46 = part<0>(t43);
        // real block of 3, multiplier 2
        const V t47 = t45 + t46;
        const V t48 = part<1>(t44);
        const V t49 = part<1>(t43);
        // real block of 3, multiplier 2
        const V t50 = t48 + t49;
        const Q t51 = joined(t21, t44);
        const Q t52 = joined(t22, t43);
        // real block of 3, multiplier 2
        const Q t53 = t51 - t52;
        // real block of 3, multiplier 2
        const Q t54 = t25 - t26;
        const Q t55 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t56 = shuffled<0, 4, 2, 6>(t34, t35);
        const Q t57 = shuffled<2, 3, 4, 5>(t55, t56);
        const Q t58 = c[0] * t27;
        const Q t59 = t57 - t58;
        // real block of 3, multiplier 2
        const Q t60 = t29 - t32;
        const Q t61 = shuffled<2, 3, 6, 7>(t56, t37);
        const Q t62 = c[0] * t33;
        const Q t63 = t61 - t62;
        const Q t64 = shuffled<1, 5, 2, 6>(t8, t9);
        const Q t65 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t66 = shuffled<2, 3, 6, 7>(t28, t65);
        // real block of 3, multiplier 2
        const Q t67 = t64 + t66;
        // real block of 3, multiplier 2
        const Q t68 = t27 + t57;
        // real block of 3, multiplier 2
        const Q t69 = t33 + t61;
        // real block of 3, multiplier 2
        const Q t70 = t16 - t17;
        // real block of 3, multiplier 2
        const Q t71 = c[1] * t54;
        const Q t72 = shuffled<0, 4, 2, 6>(t59, t71);
        const Q t73 = shuffled<1, 5, 3, 7>(t59, t71);
        const Q t74 = shuffled<0, 1, 4, 5>(t72, t73);
        // real block of 9, multiplier 2
        const Q t75 = c[2] * t74;
        const Q t76 = shuffled<1, 0, 3, 2>(t74);
        const Q t77 = Q(c[3], -c[3], c[3], -c[3]) * t76;
        const Q t78 = t75 + t77;
        // real block of 3, multiplier 2
        const Q t79 = c[1] * t60;
        const Q t80 = shuffled<0, 4, 2, 6>(t63, t79);
        const Q t81 = shuffled<1, 5, 3, 7>(t63, t79);
        const Q t82 = shuffled<0, 1, 4, 5>(t80, t81);
        // real block of 9, multiplier 2
        const Q t83 = Q(-c[4], c[4], -c[4], c[4]) * t82;
        const Q t84 = shuffled<1, 0, 3, 2>(t82);
        const Q t85 = c[5] * t84;
        const Q t86 = t83 + t85;
        const Q t87 = shuffled<0, 1, 4, 5>(t36, t55);
        // real block of 3, multiplier 2
        const Q t88 = c[0] * t67;
        const Q t89 = t87 - t88;
        const Q t90 = t64 - t66;
        const Q t91 = t67 + t87;
        // real block of 3, multiplier 2
        const Q t92 = t68 + t69;
        const Q t93 = c[0] * t92;
        const Q t94 = t91 - t93;
        const Q t95 = t68 - t69;
        const Q t96 = shuffled<2, 3, 6, 7>(t72, t73);
        // real block of 9, multiplier 2
        const Q t97 = c[2] * t96;
        const Q t98 = shuffled<1, 0, 3, 2>(t96);
        const Q t99 = Q(c[3], -c[3], c[3], -c[3]) * t98;
        const Q t100 = t97 + t99;
        const Q t101 = shuffled<2, 3, 6, 7>(t80, t81);
        const Q t102 = Q(-c[4], c[4], -c[4], c[4]) * t101;
        const Q t103 = shuffled<1, 0, 3, 2>(t101);
        const Q t104 = c[5] * t103;
        const Q t105 = t102 + t104;
        const Q t106 = flipped<0, 1, 0, 1>(t105);
        // complex block of 3, multiplier 2
        const Q t107 = t100 + t106;
        const Q t108 = t100 - t106;
        // real block of 3, multiplier 2
        const Q t109 = c[0] * t18;
        const Q t110 = t38 - t109;
        const P t111 = part<0>(t39);
        const Q t112 = joined(t42, t111);
        const P t113 = joined(t47, t50);
        const Q t114 = joined(t23, t113);
        // real block of 3, multiplier 2
        const Q t115 = c[0] * t114;
        const Q t116 = t112 - t115;
        // real block of 3, multiplier 2
        const Q t117 = c[1] * t70;
        const Q t118 = shuffled<0, 4, 2, 6>(t110, t117);
        const Q t119 = shuffled<1, 5, 3, 7>(t110, t117);
        const Q t120 = shuffled<2, 3, 6, 7>(t118, t119);
        // real block of 9, multiplier 2
        const Q t121 = c[2] * t120;
        const Q t122 = shuffled<1, 0, 3, 2>(t120);
        const Q t123 = Q(c[3], -c[3], c[3], -c[3]) * t122;
        const Q t124 = t121 + t123;
        // real block of 3, multiplier 2
        const Q t125 = c[1] * t53;
        const Q t126 = shuffled<0, 4, 2, 6>(t116, t125);
        const Q t127 = shuffled<1, 5, 3, 7>(t116, t125);
        const Q t128 = shuffled<0, 1, 4, 5>(t126, t127);
        // real block of 9, multiplier 2
        const Q t129 = Q(-c[4], c[4], -c[4], c[4]) * t128;
        const Q t130 = shuffled<1, 0, 3, 2>(t128);
        const Q t131 = c[5] * t130;
        const Q t132 = t129 + t131;
        const Q t133 = flipped<0, 1, 0, 1>(t132);
        // complex block of 3, multiplier 2
        const Q t134 = t124 + t133;
        const Q t135 = flipped<0, 1, 0, 1>(t86);
        // complex block of 3, multiplier 2
        const Q t136 = t78 + t135;
        // real block of 3, multiplier 2
        const Q t137 = c[1] * t90;
        const Q t138 = shuffled<0, 4, 2, 6>(t89, t137);
        const Q t139 = shuffled<1, 5, 3, 7>(t89, t137);
        const Q t140 = shuffled<0, 1, 4, 5>(t138, t139);
        // complex block of 3, multiplier 2
        const Q t141 = t136 + t140;
        const Q t142 = c[0] * t136;
        const Q t143 = t140 - t142;
        const Q t144 = t78 - t135;
        const Q t145 = shuffled<2, 3, 6, 7>(t138, t139);
        // complex block of 3, multiplier 2
        const Q t146 = t107 + t145;
        const Q t147 = shuffled<0, 1, 4, 5>(t118, t119);
        // complex block of 3, multiplier 2
        const Q t148 = t134 + t147;
        // real block of 27, multiplier 2
        const Q t149 = c[10] * t146;
        const Q t150 = shuffled<1, 0, 3, 2>(t146);
        const Q t151 = Q(c[11], -c[11], c[11], -c[11]) * t150;
        const Q t152 = t149 + t151;
        const Q t153 = c[6] * t148;
        const Q t154 = shuffled<1, 0, 3, 2>(t148);
        const Q t155 = Q(c[7], -c[7], c[7], -c[7]) * t154;
        const Q t156 = t153 + t155;
        // complex block of 3, multiplier 2
        const Q t157 = t152 + t156;
        // complex block of 3, multiplier 2
        const Q t158 = c[0] * t107;
        const Q t159 = t145 - t158;
        const Q t160 = Q(-c[1], c[1], -c[1], c[1]) * t108;
        const Q t161 = shuffled<1, 0, 3, 2>(t160);
        const Q t162 = t159 + t161;
        const Q t163 = t159 - t161;
        // real block of 27, multiplier 2
        const Q t164 = c[6] * t162;
        const Q t165 = shuffled<1, 0, 3, 2>(t162);
        const Q t166 = Q(-c[7], c[7], -c[7], c[7]) * t165;
        const Q t167 = t164 + t166;
        const Q t168 = Q(-c[8], c[8], -c[8], c[8]) * t163;
        const Q t169 = shuffled<1, 0, 3, 2>(t163);
        const Q t170 = c[9] * t169;
        const Q t171 = t168 + t170;
        // complex block of 3, multiplier 2
        const Q t172 = t124 - t133;
        const Q t173 = c[0] * t134;
        const Q t174 = t147 - t173;
        const Q t175 = Q(-c[1], c[1], -c[1], c[1]) * t172;
        const Q t176 = shuffled<1, 0, 3, 2>(t175);
        const Q t177 = t174 + t176;
        const Q t178 = t174 - t176;
        // real block of 27, multiplier 2
        const Q t179 = c[8] * t177;
        const Q t180 = shuffled<1, 0, 3, 2>(t177);
        const Q t181 = Q(c[9], -c[9], c[9], -c[9]) * t180;
        const Q t182 = t179 + t181;
        const Q t183 = shuffled<1, 0, 3, 2>(t178);
        const Q t184 = c[12] * t183;
        const Q t185 = Q(c[13], -c[13], c[13], -c[13]) * t178;
        const Q t186 = t184 + t185;
        // complex block of 3, multiplier 2
        const Q t187 = Q(-c[1], c[1], -c[1], c[1]) * t144;
        const Q t188 = shuffled<1, 0, 3, 2>(t187);
        const Q t189 = t143 + t188;
        const Q t190 = shuffled<0, 5, 2, 7>(t167, t182);
        const Q t191 = shuffled<0, 5, 2, 7>(t182, t167);
        // complex block of 3, multiplier 2
        const Q t192 = t190 - t191;
        const Q t193 = t167 + t182;
        const Q t194 = flipped<0, 1, 0, 1>(t189);
        const Q t195 = t192 + t194;
        io.pairs(4, 23, negated<0, 0, 0, 1>(t195));
        const Q t196 = Q(-c[0], c[0], -c[0], c[0]) * t192;
        const Q t197 = t189 + t196;
        const Q t198 = Q(c[1], -c[1], c[1], -c[1]) * t193;
        const Q t199 = shuffled<1, 0, 3, 2>(t198);
        const Q t200 = t197 + t199;
        io.pairs(14, 13, negated<0, 0, 0, 1>(t200));
        const Q t201 = shuffled<0, 5, 2, 7>(t197, t199);
        const Q t202 = shuffled<0, 5, 2, 7>(t199, t197);
        const Q t203 = t201 - t202;
        io.pairs(22, 5, negated<0, 0, 0, 1>(t203));
        // complex block of 3, multiplier 2
        const Q t204 = t143 - t188;
        const Q t205 = shuffled<0, 5, 2, 7>(t171, t186);
        const Q t206 = shuffled<0, 5, 2, 7>(t186, t171);
        // complex block of 3, multiplier 2
        const Q t207 = t205 - t206;
        const Q t208 = t171 + t186;
        const Q t209 = t207 + t204;
        io.pairs(8, 19, negated<0, 0, 0, 1>(t209));
        const Q t210 = c[0] * t207;
        const Q t211 = t204 - t210;
        const Q t212 = c[1] * t208;
        const Q t213 = shuffled<1, 0, 3, 2>(t212);
        const Q t214 = t211 - t213;
        io.pairs(10, 17, negated<0, 1, 0, 0>(t214));
        const Q t215 = t211 + t213;
        io.pairs(26, 1, negated<0, 0, 0, 1>(t215));
        // complex block of 3, multiplier 2
        const Q t216 = t152 - t156;
        const Q t217 = c[0] * t157;
        const Q t218 = t141 - t217;
        const Q t219 = Q(-c[1], c[1], -c[1], c[1]) * t216;
        const Q t220 = shuffled<1, 0, 3, 2>(t219);
        const Q t221 = t218 + t220;
        io.pairs(16, 11, negated<0, 1, 0, 0>(t221));
        const Q t222 = t218 - t220;
        io.pairs(20, 7, negated<0, 0, 0, 1>(t222));
        const Q t223 = t157 + t141;
        io.pairs(2, 25, negated<0, 0, 0, 1>(t223));
        // real block of 3, multiplier 2
        const Q t224 = t92 + t91;
        // real block of 3, multiplier 2
        const P t225 = t113 + t111;
        const P t226 = part<1>(t224);
        // real block of 3, multiplier 2
        const P t227 = t226 + t225;
        const P t228 = t226 - t225;
        const P t229 = part<0>(t224);
        const P t230 = t227 + t229;
        const V t231 = part<0>(t230);
        io.re(0, t231);
        const V t232 = part<1>(t230);
        io.re(27, t232);
        const P t233 = c[0] * t227;
        const P t234 = t229 - t233;
        const P t235 = P(c[1], -c[1]) * t228;
        const P t236 = shuffled<1, 3>(t234, t235);
        io.pair(9, t236);
        const P t237 = shuffled<0, 2>(t234, t235);
        io.pair(18, t237);
        // real block of 3, multiplier 2
        const Q t238 = c[1] * t95;
        const Q t239 = shuffled<0, 4, 2, 6>(t94, t238);
        const Q t240 = shuffled<1, 5, 3, 7>(t94, t238);
        const Q t241 = shuffled<2, 3, 6, 7>(t239, t240);
        // real block of 27, multiplier 2
        const Q t242 = c[2] * t241;
        const Q t243 = shuffled<1, 0, 3, 2>(t241);
        const Q t244 = Q(c[3], -c[3], c[3], -c[3]) * t243;
        const Q t245 = t242 + t244;
        const Q t246 = shuffled<2, 3, 6, 7>(t126, t127);
        const Q t247 = Q(-c[4], c[4], -c[4], c[4]) * t246;
        const Q t248 = shuffled<1, 0, 3, 2>(t246);
        const Q t249 = c[5] * t248;
        const Q t250 = t247 + t249;
        const Q t251 = flipped<0, 1, 0, 1>(t250);
        // complex block of 3, multiplier 2
        const Q t252 = t245 + t251;
        const Q t253 = t245 - t251;
        const Q t254 = shuffled<0, 1, 4, 5>(t239, t240);
        const Q t255 = t252 + t254;
        io.pairs(6, 21, negated<0, 0, 0, 1>(t255));
        const Q t256 = c[0] * t252;
        const Q t257 = t254 - t256;
        const Q t258 = Q(-c[1], c[1], -c[1], c[1]) * t253;
        const Q t259 = shuffled<1, 0, 3, 2>(t258);
        const Q t260 = t257 + t259;
        io.pairs(12, 15, negated<0, 1, 0, 0>(t260));
        const Q t261 = t257 - t259;
        io.pairs(24, 3, negated<0, 0, 0, 1>(t261));
    }
};

}  // namespace zulg
