// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 58.
// Forward DFT of 58 real points, prime-factor 2, 29; up to four lanes to a register.
// 99 sums, 73 differences, 106 products of registers, which do the 1148 steps of the graph, those with
// `scale` included; 183 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<58> {
    static constexpr int steps = 1148;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.4338837391175581,  // c[1]: -sin 2 pi 4/7
        0.7818314824680298,  // c[2]: -sin 2 pi 20/7
        0.6234898018587335,  // c[3]: cos 2 pi 20/7
        0.2225209339563144,  // c[4]: -cos 2 pi 16/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.19791793485411824,  // c[6]: Q[2] of 29
        0.3298297662985413,  // c[7]: P[2] of 29
        0.08413784916151361,  // c[8]: P[12] of 29
        0.3753398540149231,  // c[9]: -Q[12] of 29
        0.3609030660383976,  // c[10]: P[4] of 29
        0.1330720128259635,  // c[11]: -Q[4] of 29
        0.2987602224736465,  // c[12]: -P[10] of 29
        0.24228395147216553,  // c[13]: -Q[10] of 29
        0.38084126020120657,  // c[14]: P[6] of 29
        0.054028864524680344,  // c[15]: -Q[6] of 29
        0.2786653006997481,  // c[16]: P[8] of 29
        0.26515058713755163,  // c[17]: Q[8] of 29
        0.21044290248272673,  // c[18]: P[1] of 29
        0.3219828698364479,  // c[19]: -Q[1] of 29
        0.1800860537573993,  // c[20]: P[13] of 29
        0.3398943908268515,  // c[21]: -Q[13] of 29
        0.012126226322052493,  // c[22]: Q[3] of 29
        0.384463442096457,  // c[23]: P[3] of 29
        0.019970959548377194,  // c[24]: P[11] of 29
        0.38413584113980626,  // c[25]: Q[11] of 29
        0.13150502224471186,  // c[26]: -P[5] of 29
        0.36147698792300353,  // c[27]: -Q[5] of 29
        0.3603875070846735,  // c[28]: -P[9] of 29
        0.13446199615788765,  // c[29]: Q[9] of 29
        0.3777140697119294,  // c[30]: P[7] of 29
        0.07274108340629196,  // c[31]: Q[7] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x0_2_4_6 = io.in(0, 2, 4, 6);
        const Q x29_31_33_35 = io.in(29, 31, 33, 35);
        // real block of 2
        const Q t0 = x0_2_4_6 + x29_31_33_35;
        const Q t1 = x0_2_4_6 - x29_31_33_35;
        const Q x24_26_28_30 = io.in(24, 26, 28, 30);
        const Q x53_55_57_1 = io.in(53, 55, 57, 1);
        // real block of 2
        const Q t2 = x24_26_28_30 + x53_55_57_1;
        const Q t3 = x24_26_28_30 - x53_55_57_1;
        const Q x32_34_36_38 = io.in(32, 34, 36, 38);
        const Q x3_5_7_9 = io.in(3, 5, 7, 9);
        // real block of 2
        const Q t4 = x32_34_36_38 + x3_5_7_9;
        const Q t5 = x32_34_36_38 - x3_5_7_9;
        const Q x8_10_12_14 = io.in(8, 10, 12, 14);
        const Q x37_39_41_43 = io.in(37, 39, 41, 43);
        // real block of 2
        const Q t6 = x8_10_12_14 + x37_39_41_43;
        const Q t7 = x8_10_12_14 - x37_39_41_43;
        const Q x40_42_44_46 = io.in(40, 42, 44, 46);
        const Q x11_13_15_17 = io.in(11, 13, 15, 17);
        // real block of 2
        const Q t8 = x40_42_44_46 + x11_13_15_17;
        const Q t9 = x40_42_44_46 - x11_13_15_17;
        const Q x16_18_20_22 = io.in(16, 18, 20, 22);
        const Q x45_47_49_51 = io.in(45, 47, 49, 51);
        // real block of 2
        const Q t10 = x16_18_20_22 + x45_47_49_51;
        const Q t11 = x16_18_20_22 - x45_47_49_51;
        const Q x48_50_52_54 = io.in(48, 50, 52, 54);
        const Q x19_21_23_25 = io.in(19, 21, 23, 25);
        // real block of 2
        const Q t12 = x48_50_52_54 + x19_21_23_25;
        const Q t13 = x48_50_52_54 - x19_21_23_25;
        const Q t14 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t15 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t16 = shuffled<0, 4, 2, 6>(t10, t11);
        const Q t17 = shuffled<0, 1, 4, 5>(t15, t16);
        // real block of 7, multiplier 4
        const Q t18 = t14 + t17;
        const Q t19 = t14 - t17;
        const Q t20 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t21 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t22 = shuffled<2, 3, 6, 7>(t20, t21);
        const Q t23 = shuffled<0, 4, 3, 7>(t12, t13);
        const Q t24 = t22 + t23;
        const Q t25 = t22 - t23;
        const Q t26 = shuffled<1, 5, 3, 7>(t10, t11);
        const Q t27 = shuffled<0, 1, 4, 5>(t21, t20);
        // real block of 7, multiplier 4
        const Q t28 = t26 + t27;
        const Q t29 = shuffled<0, 1, 6, 7>(t27, t26);
        const Q t30 = shuffled<0, 1, 6, 7>(t26, t27);
        const Q t31 = t29 - t30;
        const Q t32 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t33 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t34 = shuffled<2, 3, 6, 7>(t32, t33);
        const Q t35 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t36 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t37 = shuffled<0, 1, 6, 7>(t35, t36);
        const Q t38 = t34 + t37;
        const Q t39 = t34 - t37;
        const V x56 = io.in(56);
        const V x27 = io.in(27);
        // real block of 2
        const V t40 = x56 + x27;
        const V t41 = x56 - x27;
        const Q t42 = shuffled<2, 3, 6, 7>(t35, t16);
        const Q t43 = shuffled<1, 5, 2, 6>(t12, t13);
        // real block of 7, multiplier 4
        const Q t44 = t42 + t43;
        const Q t45 = shuffled<0, 1, 6, 7>(t43, t42);
        const Q t46 = shuffled<0, 1, 6, 7>(t42, t43);
        const Q t47 = t45 - t46;
        const Q t48 = t18 + t24;
        const Q t49 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t50 = shuffled<0, 1, 4, 5>(t49, t33);
        const Q t51 = c[0] * t18;
        const Q t52 = t50 - t51;
        const Q t53 = c[1] * t19;
        const Q t54 = c[2] * t25;
        const Q t55 = t53 + t54;
        const Q t56 = c[3] * t18;
        const Q t57 = c[4] * t24;
        const Q t58 = t56 - t57;
        const Q t59 = c[4] * t18;
        const Q t60 = t50 - t59;
        const Q t61 = c[5] * t19;
        const Q t62 = c[1] * t25;
        const Q t63 = t61 + t62;
        const Q t64 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t65 = shuffled<0, 1, 6, 7>(t32, t64);
        const Q t66 = shuffled<2, 3, 6, 7>(t15, t49);
        // real block of 7, multiplier 4
        const Q t67 = t65 + t66;
        const Q t68 = t65 - t66;
        const Q t69 = t28 + t38;
        const P t70 = joined(t40, t41);
        const P t71 = part<0>(t64);
        const Q t72 = joined(t70, t71);
        const Q t73 = c[0] * t28;
        const Q t74 = t72 - t73;
        const Q t75 = c[1] * t31;
        const Q t76 = c[2] * t39;
        const Q t77 = t75 + t76;
        const Q t78 = c[3] * t28;
        const Q t79 = c[4] * t38;
        const Q t80 = t78 - t79;
        const Q t81 = c[4] * t28;
        const Q t82 = t72 - t81;
        const Q t83 = c[5] * t31;
        const Q t84 = c[1] * t39;
        const Q t85 = t83 + t84;
        // real block of 7, multiplier 4
        const Q t86 = t48 + t44;
        const Q t87 = t86 + t50;
        // real block of 7, multiplier 4
        const Q t88 = t69 + t67;
        const Q t89 = t88 + t72;
        // real block of 2
        const Q t90 = t87 + t89;
        const P t91 = part<0>(t90);
        const P t92 = part<1>(t90);
        // real block of 2
        const P t93 = t91 + t92;
        // real block of 2
        const Q t94 = t87 - t89;
        // real block of 7, multiplier 4
        const Q t95 = c[3] * t24;
        const Q t96 = t52 + t95;
        const Q t97 = c[4] * t44;
        const Q t98 = t96 - t97;
        const Q t99 = c[5] * t47;
        const Q t100 = t55 - t99;
        // real block of 7, multiplier 4
        const Q t101 = c[3] * t38;
        const Q t102 = t74 + t101;
        const Q t103 = c[4] * t67;
        const Q t104 = t102 - t103;
        const Q t105 = c[5] * t68;
        const Q t106 = t77 - t105;
        const Q t107 = shuffled<0, 4, 2, 6>(t98, t100);
        const Q t108 = shuffled<1, 5, 3, 7>(t98, t100);
        const Q t109 = shuffled<0, 1, 4, 5>(t107, t108);
        const Q t110 = shuffled<0, 4, 2, 6>(t104, t106);
        const Q t111 = shuffled<1, 5, 3, 7>(t104, t106);
        const Q t112 = shuffled<0, 1, 4, 5>(t110, t111);
        // complex block of 2
        const Q t113 = t109 - t112;
        const Q t114 = shuffled<2, 3, 6, 7>(t107, t108);
        const Q t115 = shuffled<2, 3, 6, 7>(t110, t111);
        // complex block of 2
        const Q t116 = t114 - t115;
        // complex block of 2
        const Q t117 = t109 + t112;
        // complex block of 2
        const Q t118 = t114 + t115;
        // complex block of 2
        const Q t119 = t117 + t118;
        const Q t120 = t117 - t118;
        const Q t121 = shuffled<1, 0, 3, 2>(t116);
        const Q t122 = flipped<1, 0, 1, 0>(t121);
        // complex block of 2
        const Q t123 = t113 + t122;
        const Q t124 = t113 - t122;
        // real block of 7, multiplier 4
        const Q t125 = c[0] * t44;
        const Q t126 = t58 - t125;
        const Q t127 = t126 + t50;
        const Q t128 = c[5] * t25;
        const Q t129 = c[1] * t47;
        const Q t130 = t128 + t129;
        const Q t131 = c[2] * t19;
        const Q t132 = t130 - t131;
        // real block of 7, multiplier 4
        const Q t133 = c[0] * t67;
        const Q t134 = t80 - t133;
        const Q t135 = t134 + t72;
        const Q t136 = c[5] * t39;
        const Q t137 = c[1] * t68;
        const Q t138 = t136 + t137;
        const Q t139 = c[2] * t31;
        const Q t140 = t138 - t139;
        const Q t141 = shuffled<0, 4, 2, 6>(t127, t132);
        const Q t142 = shuffled<1, 5, 3, 7>(t127, t132);
        const Q t143 = shuffled<0, 1, 4, 5>(t141, t142);
        const Q t144 = shuffled<0, 4, 2, 6>(t135, t140);
        const Q t145 = shuffled<1, 5, 3, 7>(t135, t140);
        const Q t146 = shuffled<0, 1, 4, 5>(t144, t145);
        // complex block of 2
        const Q t147 = t143 + t146;
        const Q t148 = shuffled<2, 3, 6, 7>(t141, t142);
        const Q t149 = shuffled<2, 3, 6, 7>(t144, t145);
        // complex block of 2
        const Q t150 = t148 + t149;
        // complex block of 2
        const Q t151 = t147 + t150;
        const Q t152 = t147 - t150;
        // complex block of 2
        const Q t153 = t143 - t146;
        // complex block of 2
        const Q t154 = t148 - t149;
        const Q t155 = shuffled<1, 0, 3, 2>(t154);
        const Q t156 = flipped<1, 0, 1, 0>(t155);
        // complex block of 2
        const Q t157 = t153 + t156;
        const Q t158 = t153 - t156;
        // real block of 7, multiplier 4
        const Q t159 = c[0] * t24;
        const Q t160 = t60 - t159;
        const Q t161 = c[3] * t44;
        const Q t162 = t160 + t161;
        const Q t163 = c[2] * t47;
        const Q t164 = t63 + t163;
        // real block of 7, multiplier 4
        const Q t165 = c[0] * t38;
        const Q t166 = t82 - t165;
        const Q t167 = c[3] * t67;
        const Q t168 = t166 + t167;
        const Q t169 = c[2] * t68;
        const Q t170 = t85 + t169;
        const Q t171 = shuffled<0, 4, 2, 6>(t162, t164);
        const Q t172 = shuffled<1, 5, 3, 7>(t162, t164);
        const Q t173 = shuffled<0, 1, 4, 5>(t171, t172);
        const Q t174 = shuffled<0, 4, 2, 6>(t168, t170);
        const Q t175 = shuffled<1, 5, 3, 7>(t168, t170);
        const Q t176 = shuffled<0, 1, 4, 5>(t174, t175);
        // complex block of 2
        const Q t177 = t173 - t176;
        const Q t178 = shuffled<2, 3, 6, 7>(t171, t172);
        const Q t179 = shuffled<2, 3, 6, 7>(t174, t175);
        // complex block of 2
        const Q t180 = t178 - t179;
        // complex block of 2
        const Q t181 = t173 + t176;
        // complex block of 2
        const Q t182 = t178 + t179;
        const Q t183 = shuffled<1, 0, 3, 2>(t180);
        const Q t184 = flipped<1, 0, 1, 0>(t183);
        // complex block of 2
        const Q t185 = t177 + t184;
        const Q t186 = t177 - t184;
        // real block of 2
        const P t187 = t91 - t92;
        const P t188 = part<0>(t36);
        // real block of 29, multiplier 2
        const P t189 = c[32] * t93;
        const P t190 = t188 - t189;
        const P t191 = c[33] * t187;
        // spectrum block of 2
        const P t192 = t190 - t191;
        const P t193 = t190 + t191;
        // complex block of 2
        const Q t194 = t181 + t182;
        const Q t195 = t181 - t182;
        const Q t196 = shuffled<1, 0, 3, 2>(t195);
        // real block of 29, multiplier 2
        const Q t197 = c[6] * t196;
        const Q t198 = Q(c[7], -c[7], c[7], -c[7]) * t195;
        const Q t199 = t197 + t198;
        const Q t200 = c[8] * t194;
        const Q t201 = shuffled<1, 0, 3, 2>(t194);
        const Q t202 = Q(c[9], -c[9], c[9], -c[9]) * t201;
        const Q t203 = t200 + t202;
        const Q t204 = flipped<0, 1, 0, 1>(t199);
        // complex block of 2
        const Q t205 = t203 + t204;
        const Q t206 = t203 - t204;
        // real block of 29, multiplier 2
        const Q t207 = c[10] * t119;
        const Q t208 = shuffled<1, 0, 3, 2>(t119);
        const Q t209 = Q(c[11], -c[11], c[11], -c[11]) * t208;
        const Q t210 = t207 + t209;
        const Q t211 = c[12] * t120;
        const Q t212 = shuffled<1, 0, 3, 2>(t120);
        const Q t213 = Q(c[13], -c[13], c[13], -c[13]) * t212;
        const Q t214 = t211 + t213;
        // complex block of 2
        const Q t215 = t210 - t214;
        const Q t216 = t210 + t214;
        // real block of 29, multiplier 2
        const Q t217 = c[14] * t152;
        const Q t218 = shuffled<1, 0, 3, 2>(t152);
        const Q t219 = Q(-c[15], c[15], -c[15], c[15]) * t218;
        const Q t220 = t217 + t219;
        const Q t221 = c[16] * t151;
        const Q t222 = shuffled<1, 0, 3, 2>(t151);
        const Q t223 = Q(-c[17], c[17], -c[17], c[17]) * t222;
        const Q t224 = t221 + t223;
        // complex block of 2
        const Q t225 = t224 + t220;
        const Q t226 = t224 - t220;
        const P t227 = part<0>(t215);
        const P t228 = part<1>(t215);
        const P t229 = shuffled<0, 2>(t227, t228);
        const P t230 = part<0>(t216);
        const P t231 = part<1>(t216);
        const P t232 = shuffled<0, 2>(t230, t231);
        const Q t233 = joined(t229, t232);
        const P t234 = part<0>(t225);
        const P t235 = part<1>(t225);
        const P t236 = shuffled<0, 2>(t234, t235);
        const P t237 = part<0>(t226);
        const P t238 = part<1>(t226);
        const P t239 = shuffled<0, 2>(t237, t238);
        const Q t240 = joined(t236, t239);
        // spectrum block of 7, multiplier 2
        const Q t241 = t233 + t240;
        const P t242 = part<0>(t205);
        const P t243 = part<1>(t205);
        const P t244 = shuffled<0, 2>(t242, t243);
        const P t245 = part<0>(t206);
        const P t246 = part<1>(t206);
        const P t247 = shuffled<0, 2>(t245, t246);
        const Q t248 = joined(t244, t247);
        const Q t249 = t241 + t248;
        const Q t250 = joined(t192, t193);
        const Q t251 = t249 + t250;
        const Q t252 = c[3] * t233;
        const Q t253 = c[4] * t240;
        const Q t254 = t252 - t253;
        const Q t255 = c[0] * t248;
        const Q t256 = t254 - t255;
        const P t257 = shuffled<1, 3>(t227, t228);
        const P t258 = shuffled<1, 3>(t230, t231);
        const Q t259 = joined(t257, t258);
        const Q t260 = c[2] * t259;
        const P t261 = shuffled<1, 3>(t234, t235);
        const P t262 = shuffled<1, 3>(t237, t238);
        const Q t263 = joined(t261, t262);
        const Q t264 = c[5] * t263;
        const Q t265 = t260 + t264;
        const P t266 = shuffled<1, 3>(t242, t243);
        const P t267 = shuffled<1, 3>(t245, t246);
        const Q t268 = joined(t266, t267);
        const Q t269 = c[1] * t268;
        const Q t270 = t265 + t269;
        const Q t271 = t256 + t250;
        const Q t272 = t271 - t270;
        const Q t273 = t271 + t270;
        const Q t274 = c[4] * t233;
        const Q t275 = t250 - t274;
        const Q t276 = c[0] * t240;
        const Q t277 = t275 - t276;
        const Q t278 = c[5] * t259;
        const Q t279 = c[1] * t263;
        const Q t280 = t278 - t279;
        const Q t281 = c[2] * t268;
        const Q t282 = t280 - t281;
        const Q t283 = c[3] * t248;
        const Q t284 = t277 + t283;
        const Q t285 = t284 - t282;
        const Q t286 = t284 + t282;
        const Q t287 = c[0] * t233;
        const Q t288 = t250 - t287;
        const Q t289 = c[3] * t240;
        const Q t290 = t288 + t289;
        const Q t291 = c[1] * t259;
        const Q t292 = c[2] * t263;
        const Q t293 = t291 - t292;
        const Q t294 = c[5] * t268;
        const Q t295 = t293 + t294;
        const Q t296 = c[4] * t248;
        const Q t297 = t290 - t296;
        const Q t298 = t297 - t295;
        const Q t299 = t297 + t295;
        // real block of 29, multiplier 2
        const P t300 = t188 + t93;
        const V t301 = part<0>(t300);
        io.re(0, t301);
        const V t302 = part<1>(t300);
        io.re(29, t302);
        const Q t303 = c[18] * t158;
        const Q t304 = shuffled<1, 0, 3, 2>(t158);
        const Q t305 = Q(c[19], -c[19], c[19], -c[19]) * t304;
        const Q t306 = t303 + t305;
        const Q t307 = c[20] * t157;
        const Q t308 = shuffled<1, 0, 3, 2>(t157);
        const Q t309 = Q(-c[21], c[21], -c[21], c[21]) * t308;
        const Q t310 = t307 + t309;
        const Q t311 = shuffled<1, 0, 3, 2>(t306);
        const Q t312 = shuffled<1, 0, 3, 2>(t310);
        // complex block of 2
        const Q t313 = t311 + t312;
        const Q t314 = shuffled<0, 5, 2, 7>(t311, t312);
        const Q t315 = shuffled<0, 5, 2, 7>(t312, t311);
        const Q t316 = t314 - t315;
        const Q t317 = shuffled<1, 0, 3, 2>(t313);
        // mirrored skew block of 14
        const Q t318 = c[4] * t317;
        const Q t319 = Q(c[5], -c[5], c[5], -c[5]) * t313;
        const Q t320 = t318 + t319;
        const Q t321 = shuffled<1, 0, 3, 2>(t124);
        // real block of 29, multiplier 2
        const Q t322 = c[22] * t321;
        const Q t323 = Q(c[23], -c[23], c[23], -c[23]) * t124;
        const Q t324 = t322 + t323;
        const Q t325 = c[24] * t123;
        const Q t326 = shuffled<1, 0, 3, 2>(t123);
        const Q t327 = Q(-c[25], c[25], -c[25], c[25]) * t326;
        const Q t328 = t325 + t327;
        const Q t329 = shuffled<1, 0, 3, 2>(t324);
        const Q t330 = shuffled<1, 0, 3, 2>(t328);
        const Q t331 = flipped<1, 0, 1, 0>(t330);
        // complex block of 2
        const Q t332 = t329 + t331;
        const Q t333 = flipped<0, 1, 0, 1>(t329);
        const Q t334 = t330 + t333;
        const Q t335 = shuffled<1, 0, 3, 2>(t332);
        // mirrored skew block of 14
        const Q t336 = c[3] * t335;
        const Q t337 = Q(c[2], -c[2], c[2], -c[2]) * t332;
        const Q t338 = t336 + t337;
        // real block of 29, multiplier 2
        const Q t339 = Q(-c[26], c[26], -c[26], c[26]) * t186;
        const Q t340 = shuffled<1, 0, 3, 2>(t186);
        const Q t341 = c[27] * t340;
        const Q t342 = t339 + t341;
        const Q t343 = Q(-c[28], c[28], -c[28], c[28]) * t185;
        const Q t344 = shuffled<1, 0, 3, 2>(t185);
        const Q t345 = c[29] * t344;
        const Q t346 = t343 + t345;
        const Q t347 = shuffled<1, 0, 3, 2>(t342);
        const Q t348 = shuffled<1, 0, 3, 2>(t346);
        // complex block of 2
        const Q t349 = t347 + t348;
        const Q t350 = t348 - t347;
        // mirrored skew block of 14
        const Q t351 = Q(-c[1], c[1], -c[1], c[1]) * t349;
        const Q t352 = shuffled<1, 0, 3, 2>(t349);
        const Q t353 = c[0] * t352;
        const Q t354 = t351 + t353;
        const P t355 = part<0>(t94);
        const P t356 = part<1>(t94);
        const P t357 = shuffled<0, 2>(t355, t356);
        const P t358 = part<0>(t94);
        const P t359 = part<1>(t94);
        const P t360 = shuffled<1, 3>(t358, t359);
        const Q t361 = joined(t357, t360);
        // real block of 29, multiplier 2
        const Q t362 = c[30] * t361;
        const Q t363 = shuffled<1, 0, 3, 2>(t361);
        const Q t364 = Q(-c[31], c[31], -c[31], c[31]) * t363;
        const Q t365 = t362 + t364;
        const P t366 = part<0>(t350);
        const P t367 = part<1>(t350);
        const P t368 = shuffled<0, 2>(t366, t367);
        const P t369 = part<0>(t354);
        const P t370 = part<1>(t354);
        const P t371 = shuffled<0, 2>(t369, t370);
        const Q t372 = joined(t368, t371);
        const P t373 = part<0>(t334);
        const P t374 = part<1>(t334);
        const P t375 = shuffled<0, 2>(t373, t374);
        const P t376 = part<0>(t338);
        const P t377 = part<1>(t338);
        const P t378 = shuffled<0, 2>(t376, t377);
        const Q t379 = joined(t375, t378);
        // spectrum block of 7, multiplier 2
        const Q t380 = t372 + t379;
        const P t381 = part<0>(t316);
        const P t382 = part<1>(t316);
        const P t383 = shuffled<0, 2>(t381, t382);
        const P t384 = part<0>(t320);
        const P t385 = part<1>(t320);
        const P t386 = shuffled<0, 2>(t384, t385);
        const Q t387 = joined(t383, t386);
        const Q t388 = t380 + t387;
        const P t389 = part<0>(t365);
        const P t390 = part<1>(t365);
        const P t391 = shuffled<1, 3>(t389, t390);
        const P t392 = part<0>(t365);
        const P t393 = part<1>(t365);
        const P t394 = shuffled<0, 2>(t392, t393);
        const Q t395 = joined(t391, t394);
        const Q t396 = t388 + t395;
        const P t397 = part<1>(t272);
        const P t398 = part<1>(t396);
        const P t399 = shuffled<1, 3>(t397, t398);
        io.pair(1, t399);
        const P t400 = part<0>(t251);
        const P t401 = part<0>(t396);
        const P t402 = shuffled<0, 2>(t400, t401);
        io.pair(2, t402);
        const P t403 = shuffled<1, 3>(t400, t401);
        io.pair(27, negated<0, 1>(t403));
        const P t404 = shuffled<0, 2>(t397, t398);
        io.pair(28, negated<0, 1>(t404));
        const Q t405 = c[3] * t372;
        const Q t406 = c[4] * t379;
        const Q t407 = t405 - t406;
        const Q t408 = c[0] * t387;
        const Q t409 = t407 - t408;
        const P t410 = shuffled<1, 3>(t366, t367);
        const P t411 = shuffled<1, 3>(t369, t370);
        const Q t412 = joined(t410, t411);
        const Q t413 = c[2] * t412;
        const P t414 = shuffled<1, 3>(t373, t374);
        const P t415 = shuffled<1, 3>(t376, t377);
        const Q t416 = joined(t414, t415);
        const Q t417 = Q(c[5], c[5], -c[5], -c[5]) * t416;
        const Q t418 = t413 + t417;
        const Q t419 = t409 + t395;
        const P t420 = shuffled<1, 3>(t381, t382);
        const P t421 = shuffled<1, 3>(t384, t385);
        const Q t422 = joined(t420, t421);
        const Q t423 = Q(c[1], c[1], -c[1], -c[1]) * t422;
        const Q t424 = t418 + t423;
        const Q t425 = flipped<0, 0, 1, 1>(t424);
        const Q t426 = t419 + t425;
        const P t427 = part<1>(t298);
        const P t428 = part<1>(t426);
        const P t429 = shuffled<1, 3>(t427, t428);
        io.pair(7, t429);
        const P t430 = part<0>(t285);
        const P t431 = part<0>(t426);
        const P t432 = shuffled<0, 2>(t430, t431);
        io.pair(14, t432);
        const P t433 = shuffled<1, 3>(t430, t431);
        io.pair(15, negated<0, 1>(t433));
        const P t434 = shuffled<0, 2>(t427, t428);
        io.pair(22, negated<0, 1>(t434));
        const Q t435 = t419 - t425;
        const P t436 = part<1>(t273);
        const P t437 = part<1>(t435);
        const P t438 = shuffled<0, 2>(t436, t437);
        io.pair(4, negated<0, 1>(t438));
        const P t439 = part<0>(t286);
        const P t440 = part<0>(t435);
        const P t441 = shuffled<0, 2>(t439, t440);
        io.pair(8, negated<0, 1>(t441));
        const P t442 = shuffled<1, 3>(t439, t440);
        io.pair(21, t442);
        const P t443 = shuffled<1, 3>(t436, t437);
        io.pair(25, t443);
        const Q t444 = c[4] * t372;
        const Q t445 = t395 - t444;
        const Q t446 = c[0] * t379;
        const Q t447 = t445 - t446;
        const Q t448 = Q(-c[5], -c[5], c[5], c[5]) * t412;
        const Q t449 = c[1] * t416;
        const Q t450 = t448 + t449;
        const Q t451 = c[3] * t387;
        const Q t452 = t447 + t451;
        const Q t453 = c[2] * t422;
        const Q t454 = t450 + t453;
        const Q t455 = t452 - t454;
        const P t456 = part<1>(t286);
        const P t457 = part<1>(t455);
        const P t458 = shuffled<1, 3>(t456, t457);
        io.pair(9, negated<0, 1>(t458));
        const P t459 = part<0>(t299);
        const P t460 = part<0>(t455);
        const P t461 = shuffled<1, 3>(t459, t460);
        io.pair(11, t461);
        const P t462 = shuffled<0, 2>(t459, t460);
        io.pair(18, negated<0, 1>(t462));
        const P t463 = shuffled<0, 2>(t456, t457);
        io.pair(20, t463);
        const Q t464 = t452 + t454;
        const P t465 = part<0>(t298);
        const P t466 = part<0>(t464);
        const P t467 = shuffled<1, 3>(t465, t466);
        io.pair(3, t467);
        const P t468 = part<1>(t299);
        const P t469 = part<1>(t464);
        const P t470 = shuffled<1, 3>(t468, t469);
        io.pair(13, negated<0, 1>(t470));
        const P t471 = shuffled<0, 2>(t468, t469);
        io.pair(16, t471);
        const P t472 = shuffled<0, 2>(t465, t466);
        io.pair(26, negated<0, 1>(t472));
        const Q t473 = c[0] * t372;
        const Q t474 = t395 - t473;
        const Q t475 = c[3] * t379;
        const Q t476 = t474 + t475;
        const Q t477 = Q(-c[1], -c[1], c[1], c[1]) * t412;
        const Q t478 = c[2] * t416;
        const Q t479 = t477 + t478;
        const Q t480 = c[4] * t387;
        const Q t481 = t476 - t480;
        const Q t482 = c[5] * t422;
        const Q t483 = t479 - t482;
        const Q t484 = t481 - t483;
        const P t485 = part<1>(t251);
        const P t486 = part<1>(t484);
        const P t487 = shuffled<1, 3>(t485, t486);
        io.pair(5, negated<0, 1>(t487));
        const P t488 = part<0>(t273);
        const P t489 = part<0>(t484);
        const P t490 = shuffled<0, 2>(t488, t489);
        io.pair(10, negated<0, 1>(t490));
        const P t491 = shuffled<1, 3>(t488, t489);
        io.pair(19, t491);
        const P t492 = shuffled<0, 2>(t485, t486);
        io.pair(24, t492);
        const Q t493 = t481 + t483;
        const P t494 = part<1>(t285);
        const P t495 = part<1>(t493);
        const P t496 = shuffled<0, 2>(t494, t495);
        io.pair(6, negated<0, 1>(t496));
        const P t497 = part<0>(t272);
        const P t498 = part<0>(t493);
        const P t499 = shuffled<0, 2>(t497, t498);
        io.pair(12, negated<0, 1>(t499));
        const P t500 = shuffled<1, 3>(t497, t498);
        io.pair(17, t500);
        const P t501 = shuffled<1, 3>(t494, t495);
        io.pair(23, t501);
    }
};

}  // namespace zulg
