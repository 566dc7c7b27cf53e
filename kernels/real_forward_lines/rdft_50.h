// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 50.
// Forward DFT of 50 real points, prime-factor 25, 2; up to four lanes to a register.
// 63 sums, 32 differences, 56 products of registers, which do the 628 steps of the graph, those with
// `scale` included; 75 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<50> {
    static constexpr int steps = 628;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5358267949789967,  // c[4]: cos 2 pi 4/25
        0.8443279255020151,  // c[5]: sin 2 pi 4/25
        0.42577929156507266,  // c[6]: -cos 2 pi 8/25
        0.9048270524660196,  // c[7]: sin 2 pi 8/25
        0.8763066800438636,  // c[8]: cos 2 pi 2/25
        0.48175367410171527,  // c[9]: sin 2 pi 2/25
        0.06279051952931337,  // c[10]: cos 2 pi 6/25
        0.9980267284282716,  // c[11]: sin 2 pi 6/25
        0.9921147013144779,  // c[12]: -cos 2 pi 12/25
        0.12533323356430426,  // c[13]: sin 2 pi 12/25
        0.7705132427757893,  // c[14]: -sin 2 pi 16/25
        0.6374239897486897,  // c[15]: -cos 2 pi 16/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x30_5_32_7 = io.in(30, 5, 32, 7);
        const Q x20_45_22_47 = io.in(20, 45, 22, 47);
        // real block of 5, multiplier 2
        const Q t0 = x30_5_32_7 + x20_45_22_47;
        const Q t1 = x30_5_32_7 - x20_45_22_47;
        const Q x10_35_12_37 = io.in(10, 35, 12, 37);
        const Q x40_15_42_17 = io.in(40, 15, 42, 17);
        const Q t2 = x10_35_12_37 + x40_15_42_17;
        const Q t3 = x10_35_12_37 - x40_15_42_17;
        const Q t4 = t2 + t0;
        const Q x0_25_2_27 = io.in(0, 25, 2, 27);
        const Q t5 = t4 + x0_25_2_27;
        const Q t6 = c[0] * t2;
        const Q t7 = x0_25_2_27 - t6;
        const Q t8 = c[1] * t2;
        const Q t9 = c[0] * t0;
        const Q t10 = t8 - t9;
        const Q x34_9_36_11 = io.in(34, 9, 36, 11);
        const Q x24_49_26_1 = io.in(24, 49, 26, 1);
        // real block of 5, multiplier 2
        const Q t11 = x34_9_36_11 + x24_49_26_1;
        const Q x14_39_16_41 = io.in(14, 39, 16, 41);
        const Q x44_19_46_21 = io.in(44, 19, 46, 21);
        const Q t12 = x14_39_16_41 + x44_19_46_21;
        const Q t13 = t12 + t11;
        const Q t14 = x14_39_16_41 - x44_19_46_21;
        const Q t15 = x34_9_36_11 - x24_49_26_1;
        const Q x4_29_6_31 = io.in(4, 29, 6, 31);
        const Q t16 = t13 + x4_29_6_31;
        const P x38_13 = io.in(38, 13);
        const P t17 = part<1>(t16);
        const Q t18 = joined(x38_13, t17);
        const P x28_3 = io.in(28, 3);
        const P t19 = part<0>(t16);
        const Q t20 = joined(x28_3, t19);
        // real block of 5, multiplier 2
        const Q t21 = t18 + t20;
        // real block of 5, multiplier 2
        const Q t22 = c[0] * t12;
        const Q t23 = x4_29_6_31 - t22;
        const Q t24 = c[1] * t12;
        const Q t25 = c[0] * t11;
        const Q t26 = t24 - t25;
        const P x18_43 = io.in(18, 43);
        const P x48_23 = io.in(48, 23);
        // real block of 5, multiplier 2
        const P t27 = x18_43 + x48_23;
        const P t28 = part<0>(t21);
        const P t29 = t27 + t28;
        const V t30 = part<0>(t29);
        const V x8 = io.in(8);
        const V t31 = t30 + x8;
        const V t32 = part<1>(t29);
        const V x33 = io.in(33);
        // real block of 5, multiplier 2
        const V t33 = t32 + x33;
        const P t34 = part<1>(t5);
        const V t35 = part<0>(t34);
        // real block of 5, multiplier 2
        const V t36 = t35 + t31;
        const V t37 = part<1>(t34);
        // real block of 5, multiplier 2
        const V t38 = t37 + t33;
        const Q t39 = joined(x18_43, t34);
        const P t40 = joined(t31, t33);
        const Q t41 = joined(x48_23, t40);
        // real block of 5, multiplier 2
        const Q t42 = t39 - t41;
        const P t43 = joined(x8, x33);
        const P t44 = part<0>(t5);
        const Q t45 = joined(t43, t44);
        const P t46 = joined(t36, t38);
        const Q t47 = joined(t27, t46);
        const Q t48 = c[0] * t47;
        const Q t49 = t45 - t48;
        const Q t50 = c[1] * t47;
        const Q t51 = c[0] * t21;
        const Q t52 = t50 - t51;
        // real block of 5, multiplier 2
        const Q t53 = c[1] * t0;
        const Q t54 = t7 + t53;
        const Q t55 = c[2] * t3;
        const Q t56 = c[3] * t1;
        const Q t57 = t55 + t56;
        const Q t58 = shuffled<0, 4, 2, 6>(t54, t57);
        const Q t59 = shuffled<1, 5, 3, 7>(t54, t57);
        const Q t60 = shuffled<2, 3, 6, 7>(t58, t59);
        // real block of 25, multiplier 2
        const Q t61 = c[8] * t60;
        const Q t62 = shuffled<1, 0, 3, 2>(t60);
        const Q t63 = Q(-c[9], c[9], -c[9], c[9]) * t62;
        const Q t64 = t61 + t63;
        // real block of 5, multiplier 2
        const Q t65 = t10 + x0_25_2_27;
        const Q t66 = c[3] * t3;
        const Q t67 = c[2] * t1;
        const Q t68 = t66 - t67;
        const Q t69 = shuffled<0, 4, 2, 6>(t65, t68);
        const Q t70 = shuffled<1, 5, 3, 7>(t65, t68);
        const Q t71 = shuffled<2, 3, 6, 7>(t69, t70);
        // real block of 25, multiplier 2
        const Q t72 = c[4] * t71;
        const Q t73 = shuffled<1, 0, 3, 2>(t71);
        const Q t74 = Q(c[5], -c[5], c[5], -c[5]) * t73;
        const Q t75 = t72 + t74;
        // real block of 5, multiplier 2
        const Q t76 = c[1] * t11;
        const Q t77 = t23 + t76;
        const Q t78 = c[2] * t14;
        const Q t79 = c[3] * t15;
        const Q t80 = t78 + t79;
        const Q t81 = shuffled<0, 4, 2, 6>(t77, t80);
        const Q t82 = shuffled<1, 5, 3, 7>(t77, t80);
        const Q t83 = shuffled<0, 1, 4, 5>(t81, t82);
        // real block of 25, multiplier 2
        const Q t84 = c[4] * t83;
        const Q t85 = shuffled<1, 0, 3, 2>(t83);
        const Q t86 = Q(-c[5], c[5], -c[5], c[5]) * t85;
        const Q t87 = t84 + t86;
        const Q t88 = shuffled<2, 3, 6, 7>(t81, t82);
        const Q t89 = c[10] * t88;
        const Q t90 = shuffled<1, 0, 3, 2>(t88);
        const Q t91 = Q(-c[11], c[11], -c[11], c[11]) * t90;
        const Q t92 = t89 + t91;
        // real block of 5, multiplier 2
        const Q t93 = t26 + x4_29_6_31;
        const Q t94 = c[3] * t14;
        const Q t95 = c[2] * t15;
        const Q t96 = t94 - t95;
        const Q t97 = shuffled<0, 4, 2, 6>(t93, t96);
        const Q t98 = shuffled<1, 5, 3, 7>(t93, t96);
        const Q t99 = shuffled<0, 1, 4, 5>(t97, t98);
        // real block of 25, multiplier 2
        const Q t100 = Q(-c[6], c[6], -c[6], c[6]) * t99;
        const Q t101 = shuffled<1, 0, 3, 2>(t99);
        const Q t102 = c[7] * t101;
        const Q t103 = t100 + t102;
        const Q t104 = shuffled<2, 3, 6, 7>(t97, t98);
        const Q t105 = Q(-c[12], c[12], -c[12], c[12]) * t104;
        const Q t106 = shuffled<1, 0, 3, 2>(t104);
        const Q t107 = c[13] * t106;
        const Q t108 = t105 + t107;
        // real block of 5, multiplier 2
        const Q t109 = t18 - t20;
        const P t110 = part<1>(t21);
        // real block of 5, multiplier 2
        const P t111 = t46 + t110;
        const P t112 = t111 + t44;
        const V t113 = part<0>(t112);
        const V t114 = part<1>(t112);
        // real block of 2
        const V t115 = t113 + t114;
        io.re(0, t115);
        const V t116 = t113 - t114;
        io.re(25, t116);
        // real block of 5, multiplier 2
        const Q t117 = c[1] * t21;
        const Q t118 = t49 + t117;
        const Q t119 = c[2] * t42;
        const Q t120 = c[3] * t109;
        const Q t121 = t119 + t120;
        const Q t122 = shuffled<0, 4, 2, 6>(t118, t121);
        const Q t123 = shuffled<1, 5, 3, 7>(t118, t121);
        const Q t124 = shuffled<0, 1, 4, 5>(t122, t123);
        // real block of 25, multiplier 2
        const Q t125 = c[6] * t124;
        const Q t126 = shuffled<1, 0, 3, 2>(t124);
        const Q t127 = Q(c[7], -c[7], c[7], -c[7]) * t126;
        const Q t128 = t125 + t127;
        const Q t129 = shuffled<0, 5, 2, 7>(t64, t128);
        const Q t130 = shuffled<0, 5, 2, 7>(t128, t64);
        // complex block of 5, multiplier 2
        const Q t131 = t129 - t130;
        const Q t132 = t64 + t128;
        // real block of 5, multiplier 2
        const Q t133 = t52 + t45;
        const Q t134 = c[3] * t42;
        const Q t135 = c[2] * t109;
        const Q t136 = t134 - t135;
        const Q t137 = shuffled<0, 4, 2, 6>(t136, t133);
        const Q t138 = shuffled<1, 5, 3, 7>(t136, t133);
        const Q t139 = shuffled<0, 1, 4, 5>(t137, t138);
        // real block of 25, multiplier 2
        const Q t140 = c[14] * t139;
        const Q t141 = shuffled<1, 0, 3, 2>(t139);
        const Q t142 = Q(c[15], -c[15], c[15], -c[15]) * t141;
        const Q t143 = t140 + t142;
        const Q t144 = flipped<1, 0, 1, 0>(t143);
        // complex block of 5, multiplier 2
        const Q t145 = t75 + t144;
        const Q t146 = t75 - t144;
        // complex block of 5, multiplier 2
        const Q t147 = t92 + t87;
        const Q t148 = shuffled<0, 5, 2, 7>(t92, t87);
        const Q t149 = shuffled<0, 5, 2, 7>(t87, t92);
        const Q t150 = t148 - t149;
        // complex block of 5, multiplier 2
        const Q t151 = t108 + t103;
        const Q t152 = shuffled<0, 5, 2, 7>(t108, t103);
        const Q t153 = shuffled<0, 5, 2, 7>(t103, t108);
        const Q t154 = t152 - t153;
        const Q t155 = flipped<0, 1, 0, 1>(t147);
        // complex block of 5, multiplier 2
        const Q t156 = t131 + t155;
        const Q t157 = shuffled<0, 1, 4, 5>(t58, t59);
        const Q t158 = flipped<0, 1, 0, 1>(t157);
        const Q t159 = t156 + t158;
        const Q t160 = flipped<0, 1, 0, 1>(t151);
        // complex block of 5, multiplier 2
        const Q t161 = t145 + t160;
        const Q t162 = shuffled<0, 1, 4, 5>(t69, t70);
        const Q t163 = t161 + t162;
        const Q t164 = shuffled<0, 1, 4, 5>(t159, t163);
        const Q t165 = shuffled<2, 3, 6, 7>(t159, t163);
        // complex block of 2
        const Q t166 = t164 + t165;
        io.pairs(2, 4, t166);
        const Q t167 = t164 - t165;
        io.pairs(23, 21, negated<0, 1, 0, 1>(t167));
        // complex block of 5, multiplier 2
        const Q t168 = c[1] * t131;
        const Q t169 = Q(-c[0], c[0], -c[0], c[0]) * t147;
        const Q t170 = t168 + t169;
        const Q t171 = t170 + t158;
        const Q t172 = c[3] * t132;
        const Q t173 = Q(-c[2], c[2], -c[2], c[2]) * t150;
        const Q t174 = t172 + t173;
        const Q t175 = Q(-c[0], c[0], -c[0], c[0]) * t131;
        const Q t176 = t157 + t175;
        const Q t177 = c[1] * t147;
        const Q t178 = t176 + t177;
        const Q t179 = c[3] * t150;
        const Q t180 = Q(c[2], -c[2], c[2], -c[2]) * t132;
        const Q t181 = t179 + t180;
        // complex block of 5, multiplier 2
        const Q t182 = c[1] * t145;
        const Q t183 = Q(-c[0], c[0], -c[0], c[0]) * t151;
        const Q t184 = t182 + t183;
        const Q t185 = t184 + t162;
        const Q t186 = c[3] * t146;
        const Q t187 = c[2] * t154;
        const Q t188 = t186 - t187;
        const Q t189 = c[0] * t145;
        const Q t190 = t162 - t189;
        const Q t191 = Q(c[1], -c[1], c[1], -c[1]) * t151;
        const Q t192 = t190 + t191;
        const Q t193 = c[2] * t146;
        const Q t194 = c[3] * t154;
        const Q t195 = t193 + t194;
        const Q t196 = shuffled<1, 0, 3, 2>(t174);
        // complex block of 5, multiplier 2
        const Q t197 = t171 - t196;
        const Q t198 = shuffled<1, 0, 3, 2>(t137);
        const Q t199 = shuffled<0, 1, 6, 7>(t197, t198);
        const Q t200 = shuffled<1, 0, 3, 2>(t138);
        const Q t201 = shuffled<2, 3, 6, 7>(t197, t200);
        // complex block of 2
        const Q t202 = t199 + t201;
        io.pairs(18, 20, negated<0, 1, 0, 0>(t202));
        const Q t203 = flipped<0, 1, 0, 0>(t199);
        const Q t204 = flipped<0, 1, 0, 0>(t201);
        const Q t205 = t203 - t204;
        io.pairs(7, 5, negated<0, 1, 0, 1>(t205));
        // complex block of 5, multiplier 2
        const Q t206 = t171 + t196;
        const Q t207 = shuffled<1, 0, 3, 2>(t188);
        const Q t208 = flipped<1, 0, 1, 0>(t207);
        // complex block of 5, multiplier 2
        const Q t209 = t185 + t208;
        const Q t210 = shuffled<0, 1, 4, 5>(t206, t209);
        const Q t211 = shuffled<2, 3, 6, 7>(t206, t209);
        // complex block of 2
        const Q t212 = t210 + t211;
        io.pairs(22, 24, t212);
        const Q t213 = t210 - t211;
        io.pairs(3, 1, negated<0, 1, 0, 1>(t213));
        const Q t214 = shuffled<1, 0, 3, 2>(t181);
        // complex block of 5, multiplier 2
        const Q t215 = t178 + t214;
        const Q t216 = shuffled<2, 3, 4, 5>(t122, t215);
        const Q t217 = shuffled<2, 3, 6, 7>(t123, t215);
        // complex block of 2
        const Q t218 = t216 + t217;
        io.pairs(10, 12, negated<0, 1, 0, 1>(t218));
        const Q t219 = shuffled<0, 5, 2, 7>(t216, t217);
        const Q t220 = shuffled<0, 5, 2, 7>(t217, t216);
        const Q t221 = t219 - t220;
        io.pairs(15, 13, negated<0, 1, 0, 1>(t221));
        const Q t222 = shuffled<0, 5, 2, 7>(t178, t214);
        const Q t223 = shuffled<0, 5, 2, 7>(t214, t178);
        // complex block of 5, multiplier 2
        const Q t224 = t222 - t223;
        const Q t225 = shuffled<1, 0, 3, 2>(t195);
        const Q t226 = flipped<1, 0, 1, 0>(t225);
        // complex block of 5, multiplier 2
        const Q t227 = t192 + t226;
        const Q t228 = shuffled<0, 1, 4, 5>(t227, t224);
        const Q t229 = shuffled<2, 3, 6, 7>(t227, t224);
        // complex block of 2
        const Q t230 = t228 + t229;
        io.pairs(6, 8, negated<0, 1, 0, 1>(t230));
        const Q t231 = shuffled<0, 5, 2, 7>(t228, t229);
        const Q t232 = shuffled<0, 5, 2, 7>(t229, t228);
        const Q t233 = t231 - t232;
        io.pairs(19, 17, negated<0, 1, 0, 1>(t233));
        // complex block of 5, multiplier 2
        const Q t234 = t185 - t208;
        const Q t235 = t192 - t226;
        const Q t236 = shuffled<0, 1, 4, 5>(t235, t234);
        const Q t237 = shuffled<2, 3, 6, 7>(t235, t234);
        // complex block of 2
        const Q t238 = t236 + t237;
        io.pairs(14, 16, negated<0, 0, 0, 1>(t238));
        const Q t239 = flipped<0, 0, 0, 1>(t236);
        const Q t240 = flipped<0, 0, 0, 1>(t237);
        const Q t241 = t239 - t240;
        io.pairs(11, 9, negated<0, 1, 0, 1>(t241));
    }
};

}  // namespace zulg
