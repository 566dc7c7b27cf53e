// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 58.
// Forward DFT of 58 real points, prime-factor 2, 29; up to four lanes to a register.
// 98 sums, 74 differences, 106 products of registers, which do the 1148 steps of the graph, those with
// `scale` included; 181 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<58> {
    static constexpr int steps = 1148;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.21044290248272673,  // c[6]: P[1] of 29
        0.3219828698364479,  // c[7]: -Q[1] of 29
        0.19791793485411824,  // c[8]: Q[2] of 29
        0.3298297662985413,  // c[9]: P[2] of 29
        0.012126226322052493,  // c[10]: Q[3] of 29
        0.384463442096457,  // c[11]: P[3] of 29
        0.3609030660383976,  // c[12]: P[4] of 29
        0.1330720128259635,  // c[13]: -Q[4] of 29
        0.13150502224471186,  // c[14]: -P[5] of 29
        0.36147698792300353,  // c[15]: -Q[5] of 29
        0.38084126020120657,  // c[16]: P[6] of 29
        0.054028864524680344,  // c[17]: -Q[6] of 29
        0.3777140697119294,  // c[18]: P[7] of 29
        0.07274108340629196,  // c[19]: Q[7] of 29
        0.2786653006997481,  // c[20]: P[8] of 29
        0.26515058713755163,  // c[21]: Q[8] of 29
        0.3603875070846735,  // c[22]: -P[9] of 29
        0.13446199615788765,  // c[23]: Q[9] of 29
        0.2987602224736465,  // c[24]: -P[10] of 29
        0.24228395147216553,  // c[25]: -Q[10] of 29
        0.019970959548377194,  // c[26]: P[11] of 29
        0.38413584113980626,  // c[27]: Q[11] of 29
        0.08413784916151361,  // c[28]: P[12] of 29
        0.3753398540149231,  // c[29]: -Q[12] of 29
        0.1800860537573993,  // c[30]: P[13] of 29
        0.3398943908268515,  // c[31]: -Q[13] of 29
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
        const Q x8_10_12_14 = io.in(8, 10, 12, 14);
        const Q x37_39_41_43 = io.in(37, 39, 41, 43);
        // real block of 2
        const Q t2 = x8_10_12_14 + x37_39_41_43;
        const Q t3 = x8_10_12_14 - x37_39_41_43;
        const Q x16_18_20_22 = io.in(16, 18, 20, 22);
        const Q x45_47_49_51 = io.in(45, 47, 49, 51);
        // real block of 2
        const Q t4 = x16_18_20_22 + x45_47_49_51;
        const Q t5 = x16_18_20_22 - x45_47_49_51;
        const Q x24_26_28_30 = io.in(24, 26, 28, 30);
        const Q x53_55_57_1 = io.in(53, 55, 57, 1);
        // real block of 2
        const Q t6 = x24_26_28_30 + x53_55_57_1;
        const Q t7 = x24_26_28_30 - x53_55_57_1;
        const Q x32_34_36_38 = io.in(32, 34, 36, 38);
        const Q x3_5_7_9 = io.in(3, 5, 7, 9);
        // real block of 2
        const Q t8 = x32_34_36_38 + x3_5_7_9;
        const Q t9 = x32_34_36_38 - x3_5_7_9;
        const Q x40_42_44_46 = io.in(40, 42, 44, 46);
        const Q x11_13_15_17 = io.in(11, 13, 15, 17);
        // real block of 2
        const Q t10 = x40_42_44_46 + x11_13_15_17;
        const Q t11 = x40_42_44_46 - x11_13_15_17;
        const Q x48_50_52_54 = io.in(48, 50, 52, 54);
        const Q x19_21_23_25 = io.in(19, 21, 23, 25);
        // real block of 2
        const Q t12 = x48_50_52_54 + x19_21_23_25;
        const Q t13 = x48_50_52_54 - x19_21_23_25;
        const V x56 = io.in(56);
        const V x27 = io.in(27);
        // real block of 2
        const V t14 = x56 + x27;
        const V t15 = x56 - x27;
        const Q t16 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t17 = shuffled<0, 4, 2, 6>(t10, t11);
        const Q t18 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t19 = shuffled<0, 1, 4, 5>(t17, t18);
        // real block of 7, multiplier 4
        const Q t20 = t16 + t19;
        const Q t21 = t16 - t19;
        const Q t22 = shuffled<1, 5, 3, 7>(t10, t11);
        const Q t23 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t24 = shuffled<2, 3, 6, 7>(t22, t23);
        const Q t25 = shuffled<0, 4, 3, 7>(t12, t13);
        const Q t26 = t24 + t25;
        const Q t27 = t24 - t25;
        const Q t28 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t29 = shuffled<2, 3, 6, 7>(t28, t18);
        const Q t30 = shuffled<1, 5, 2, 6>(t12, t13);
        const Q t31 = t29 + t30;
        const Q t32 = shuffled<0, 1, 6, 7>(t30, t29);
        const Q t33 = shuffled<0, 1, 6, 7>(t29, t30);
        const Q t34 = t32 - t33;
        const Q t35 = t20 + t26;
        const Q t36 = t35 + t31;
        const Q t37 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t38 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t39 = shuffled<0, 1, 4, 5>(t37, t38);
        const Q t40 = t36 + t39;
        const Q t41 = c[0] * t20;
        const Q t42 = t39 - t41;
        const Q t43 = c[1] * t26;
        const Q t44 = t42 + t43;
        const Q t45 = c[2] * t31;
        const Q t46 = t44 - t45;
        const Q t47 = c[3] * t21;
        const Q t48 = c[4] * t27;
        const Q t49 = t47 + t48;
        const Q t50 = c[5] * t34;
        const Q t51 = t49 - t50;
        const Q t52 = c[1] * t20;
        const Q t53 = c[2] * t26;
        const Q t54 = t52 - t53;
        const Q t55 = c[0] * t31;
        const Q t56 = t54 - t55;
        const Q t57 = t56 + t39;
        const Q t58 = c[5] * t27;
        const Q t59 = c[3] * t34;
        const Q t60 = t58 + t59;
        const Q t61 = c[4] * t21;
        const Q t62 = t60 - t61;
        const Q t63 = c[2] * t20;
        const Q t64 = t39 - t63;
        const Q t65 = c[0] * t26;
        const Q t66 = t64 - t65;
        const Q t67 = c[1] * t31;
        const Q t68 = t66 + t67;
        const Q t69 = c[5] * t21;
        const Q t70 = c[3] * t27;
        const Q t71 = t69 + t70;
        const Q t72 = c[4] * t34;
        const Q t73 = t71 + t72;
        const Q t74 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t75 = shuffled<0, 1, 4, 5>(t23, t22);
        // real block of 7, multiplier 4
        const Q t76 = t74 + t75;
        const Q t77 = shuffled<0, 1, 6, 7>(t75, t74);
        const Q t78 = shuffled<0, 1, 6, 7>(t74, t75);
        const Q t79 = t77 - t78;
        const Q t80 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t81 = shuffled<2, 3, 6, 7>(t80, t38);
        const Q t82 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t83 = shuffled<0, 1, 6, 7>(t28, t82);
        const Q t84 = t81 + t83;
        const Q t85 = t81 - t83;
        const Q t86 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t87 = shuffled<0, 1, 6, 7>(t80, t86);
        const Q t88 = shuffled<2, 3, 6, 7>(t17, t37);
        const Q t89 = t87 + t88;
        const Q t90 = t87 - t88;
        const Q t91 = t76 + t84;
        const Q t92 = t91 + t89;
        const P t93 = joined(t14, t15);
        const P t94 = part<0>(t86);
        const Q t95 = joined(t93, t94);
        const Q t96 = t92 + t95;
        const Q t97 = c[0] * t76;
        const Q t98 = t95 - t97;
        const Q t99 = c[1] * t84;
        const Q t100 = t98 + t99;
        const Q t101 = c[2] * t89;
        const Q t102 = t100 - t101;
        const Q t103 = c[3] * t79;
        const Q t104 = c[4] * t85;
        const Q t105 = t103 + t104;
        const Q t106 = c[5] * t90;
        const Q t107 = t105 - t106;
        const Q t108 = c[1] * t76;
        const Q t109 = c[2] * t84;
        const Q t110 = t108 - t109;
        const Q t111 = c[0] * t89;
        const Q t112 = t110 - t111;
        const Q t113 = t112 + t95;
        const Q t114 = c[5] * t85;
        const Q t115 = c[3] * t90;
        const Q t116 = t114 + t115;
        const Q t117 = c[4] * t79;
        const Q t118 = t116 - t117;
        const Q t119 = c[2] * t76;
        const Q t120 = t95 - t119;
        const Q t121 = c[0] * t84;
        const Q t122 = t120 - t121;
        const Q t123 = c[1] * t89;
        const Q t124 = t122 + t123;
        const Q t125 = c[5] * t79;
        const Q t126 = c[3] * t85;
        const Q t127 = t125 + t126;
        const Q t128 = c[4] * t90;
        const Q t129 = t127 + t128;
        // real block of 2
        const Q t130 = t40 + t96;
        const Q t131 = t40 - t96;
        const P t132 = part<0>(t130);
        const P t133 = part<1>(t130);
        // real block of 2
        const P t134 = t132 + t133;
        const P t135 = t132 - t133;
        const Q t136 = shuffled<0, 4, 2, 6>(t46, t51);
        const Q t137 = shuffled<1, 5, 3, 7>(t46, t51);
        const Q t138 = shuffled<0, 1, 4, 5>(t136, t137);
        const Q t139 = shuffled<0, 4, 2, 6>(t102, t107);
        const Q t140 = shuffled<1, 5, 3, 7>(t102, t107);
        const Q t141 = shuffled<0, 1, 4, 5>(t139, t140);
        // complex block of 2
        const Q t142 = t138 + t141;
        const Q t143 = t138 - t141;
        const Q t144 = shuffled<2, 3, 6, 7>(t136, t137);
        const Q t145 = shuffled<2, 3, 6, 7>(t139, t140);
        // complex block of 2
        const Q t146 = t144 + t145;
        const Q t147 = t144 - t145;
        // complex block of 2
        const Q t148 = t142 + t146;
        const Q t149 = t142 - t146;
        const Q t150 = shuffled<1, 0, 3, 2>(t147);
        const Q t151 = flipped<1, 0, 1, 0>(t150);
        // complex block of 2
        const Q t152 = t143 + t151;
        const Q t153 = t143 - t151;
        const Q t154 = shuffled<0, 4, 2, 6>(t57, t62);
        const Q t155 = shuffled<1, 5, 3, 7>(t57, t62);
        const Q t156 = shuffled<0, 1, 4, 5>(t154, t155);
        const Q t157 = shuffled<0, 4, 2, 6>(t113, t118);
        const Q t158 = shuffled<1, 5, 3, 7>(t113, t118);
        const Q t159 = shuffled<0, 1, 4, 5>(t157, t158);
        // complex block of 2
        const Q t160 = t156 + t159;
        const Q t161 = t156 - t159;
        const Q t162 = shuffled<2, 3, 6, 7>(t154, t155);
        const Q t163 = shuffled<2, 3, 6, 7>(t157, t158);
        // complex block of 2
        const Q t164 = t162 + t163;
        const Q t165 = t162 - t163;
        // complex block of 2
        const Q t166 = t160 + t164;
        const Q t167 = t160 - t164;
        const Q t168 = shuffled<1, 0, 3, 2>(t165);
        const Q t169 = flipped<1, 0, 1, 0>(t168);
        // complex block of 2
        const Q t170 = t161 + t169;
        const Q t171 = t161 - t169;
        const Q t172 = shuffled<0, 4, 2, 6>(t68, t73);
        const Q t173 = shuffled<1, 5, 3, 7>(t68, t73);
        const Q t174 = shuffled<0, 1, 4, 5>(t172, t173);
        const Q t175 = shuffled<0, 4, 2, 6>(t124, t129);
        const Q t176 = shuffled<1, 5, 3, 7>(t124, t129);
        const Q t177 = shuffled<0, 1, 4, 5>(t175, t176);
        // complex block of 2
        const Q t178 = t174 + t177;
        const Q t179 = t174 - t177;
        const Q t180 = shuffled<2, 3, 6, 7>(t172, t173);
        const Q t181 = shuffled<2, 3, 6, 7>(t175, t176);
        // complex block of 2
        const Q t182 = t180 + t181;
        const Q t183 = t180 - t181;
        // complex block of 2
        const Q t184 = t178 + t182;
        const Q t185 = t178 - t182;
        const Q t186 = shuffled<1, 0, 3, 2>(t183);
        const Q t187 = flipped<1, 0, 1, 0>(t186);
        // complex block of 2
        const Q t188 = t179 + t187;
        const Q t189 = t179 - t187;
        const P t190 = part<0>(t82);
        // real block of 29, multiplier 2
        const P t191 = t190 + t134;
        const V t192 = part<0>(t191);
        io.re(0, t192);
        const V t193 = part<1>(t191);
        io.re(29, t193);
        const P t194 = c[32] * t134;
        const P t195 = t190 - t194;
        const Q t196 = c[6] * t171;
        const Q t197 = shuffled<1, 0, 3, 2>(t171);
        const Q t198 = Q(c[7], -c[7], c[7], -c[7]) * t197;
        const Q t199 = t196 + t198;
        const Q t200 = shuffled<1, 0, 3, 2>(t185);
        const Q t201 = c[8] * t200;
        const Q t202 = Q(c[9], -c[9], c[9], -c[9]) * t185;
        const Q t203 = t201 + t202;
        const Q t204 = shuffled<1, 0, 3, 2>(t153);
        const Q t205 = c[10] * t204;
        const Q t206 = Q(c[11], -c[11], c[11], -c[11]) * t153;
        const Q t207 = t205 + t206;
        const Q t208 = c[12] * t148;
        const Q t209 = shuffled<1, 0, 3, 2>(t148);
        const Q t210 = Q(c[13], -c[13], c[13], -c[13]) * t209;
        const Q t211 = t208 + t210;
        const Q t212 = Q(-c[14], c[14], -c[14], c[14]) * t189;
        const Q t213 = shuffled<1, 0, 3, 2>(t189);
        const Q t214 = c[15] * t213;
        const Q t215 = t212 + t214;
        const Q t216 = c[16] * t167;
        const Q t217 = shuffled<1, 0, 3, 2>(t167);
        const Q t218 = Q(-c[17], c[17], -c[17], c[17]) * t217;
        const Q t219 = t216 + t218;
        const P t220 = part<0>(t131);
        const P t221 = part<1>(t131);
        const P t222 = shuffled<0, 2>(t220, t221);
        const P t223 = part<0>(t131);
        const P t224 = part<1>(t131);
        const P t225 = shuffled<1, 3>(t223, t224);
        const Q t226 = joined(t222, t225);
        const Q t227 = c[18] * t226;
        const Q t228 = shuffled<1, 0, 3, 2>(t226);
        const Q t229 = Q(-c[19], c[19], -c[19], c[19]) * t228;
        const Q t230 = t227 + t229;
        const Q t231 = c[20] * t166;
        const Q t232 = shuffled<1, 0, 3, 2>(t166);
        const Q t233 = Q(-c[21], c[21], -c[21], c[21]) * t232;
        const Q t234 = t231 + t233;
        const Q t235 = Q(-c[22], c[22], -c[22], c[22]) * t188;
        const Q t236 = shuffled<1, 0, 3, 2>(t188);
        const Q t237 = c[23] * t236;
        const Q t238 = t235 + t237;
        const Q t239 = c[24] * t149;
        const Q t240 = shuffled<1, 0, 3, 2>(t149);
        const Q t241 = Q(c[25], -c[25], c[25], -c[25]) * t240;
        const Q t242 = t239 + t241;
        const Q t243 = c[26] * t152;
        const Q t244 = shuffled<1, 0, 3, 2>(t152);
        const Q t245 = Q(-c[27], c[27], -c[27], c[27]) * t244;
        const Q t246 = t243 + t245;
        const Q t247 = c[28] * t184;
        const Q t248 = shuffled<1, 0, 3, 2>(t184);
        const Q t249 = Q(c[29], -c[29], c[29], -c[29]) * t248;
        const Q t250 = t247 + t249;
        const Q t251 = c[30] * t170;
        const Q t252 = shuffled<1, 0, 3, 2>(t170);
        const Q t253 = Q(-c[31], c[31], -c[31], c[31]) * t252;
        const Q t254 = t251 + t253;
        const P t255 = c[33] * t135;
        // spectrum block of 2
        const P t256 = t195 - t255;
        const P t257 = t195 + t255;
        // complex block of 2
        const Q t258 = t211 - t242;
        const Q t259 = t211 + t242;
        // complex block of 2
        const Q t260 = t234 + t219;
        const Q t261 = t234 - t219;
        const Q t262 = flipped<0, 1, 0, 1>(t203);
        // complex block of 2
        const Q t263 = t250 + t262;
        const Q t264 = t250 - t262;
        const P t265 = part<0>(t258);
        const P t266 = part<1>(t258);
        const P t267 = shuffled<0, 2>(t265, t266);
        const P t268 = part<0>(t259);
        const P t269 = part<1>(t259);
        const P t270 = shuffled<0, 2>(t268, t269);
        const Q t271 = joined(t267, t270);
        const P t272 = part<0>(t260);
        const P t273 = part<1>(t260);
        const P t274 = shuffled<0, 2>(t272, t273);
        const P t275 = part<0>(t261);
        const P t276 = part<1>(t261);
        const P t277 = shuffled<0, 2>(t275, t276);
        const Q t278 = joined(t274, t277);
        // spectrum block of 7, multiplier 2
        const Q t279 = t271 + t278;
        const P t280 = part<0>(t263);
        const P t281 = part<1>(t263);
        const P t282 = shuffled<0, 2>(t280, t281);
        const P t283 = part<0>(t264);
        const P t284 = part<1>(t264);
        const P t285 = shuffled<0, 2>(t283, t284);
        const Q t286 = joined(t282, t285);
        const Q t287 = t279 + t286;
        const Q t288 = joined(t256, t257);
        const Q t289 = t287 + t288;
        const Q t290 = c[1] * t271;
        const Q t291 = c[2] * t278;
        const Q t292 = t290 - t291;
        const Q t293 = c[0] * t286;
        const Q t294 = t292 - t293;
        const Q t295 = t294 + t288;
        const P t296 = shuffled<1, 3>(t265, t266);
        const P t297 = shuffled<1, 3>(t268, t269);
        const Q t298 = joined(t296, t297);
        const Q t299 = c[4] * t298;
        const P t300 = shuffled<1, 3>(t272, t273);
        const P t301 = shuffled<1, 3>(t275, t276);
        const Q t302 = joined(t300, t301);
        const Q t303 = c[5] * t302;
        const Q t304 = t299 + t303;
        const P t305 = shuffled<1, 3>(t280, t281);
        const P t306 = shuffled<1, 3>(t283, t284);
        const Q t307 = joined(t305, t306);
        const Q t308 = c[3] * t307;
        const Q t309 = t304 + t308;
        const Q t310 = t295 - t309;
        const Q t311 = t295 + t309;
        const Q t312 = c[2] * t271;
        const Q t313 = t288 - t312;
        const Q t314 = c[0] * t278;
        const Q t315 = t313 - t314;
        const Q t316 = c[1] * t286;
        const Q t317 = t315 + t316;
        const Q t318 = c[5] * t298;
        const Q t319 = c[3] * t302;
        const Q t320 = t318 - t319;
        const Q t321 = c[4] * t307;
        const Q t322 = t320 - t321;
        const Q t323 = t317 - t322;
        const Q t324 = t317 + t322;
        const Q t325 = c[0] * t271;
        const Q t326 = t288 - t325;
        const Q t327 = c[1] * t278;
        const Q t328 = t326 + t327;
        const Q t329 = c[2] * t286;
        const Q t330 = t328 - t329;
        const Q t331 = c[3] * t298;
        const Q t332 = c[4] * t302;
        const Q t333 = t331 - t332;
        const Q t334 = c[5] * t307;
        const Q t335 = t333 + t334;
        const Q t336 = t330 - t335;
        const Q t337 = t330 + t335;
        const Q t338 = shuffled<1, 4, 3, 6>(t199, t254);
        const Q t339 = shuffled<1, 4, 3, 6>(t254, t199);
        // complex block of 2
        const Q t340 = t338 - t339;
        const Q t341 = t339 + t338;
        const Q t342 = shuffled<1, 0, 3, 2>(t341);
        // mirrored skew block of 14
        const Q t343 = c[2] * t342;
        const Q t344 = Q(c[5], -c[5], c[5], -c[5]) * t341;
        const Q t345 = t343 + t344;
        const Q t346 = shuffled<1, 4, 3, 6>(t207, t246);
        const Q t347 = shuffled<1, 4, 3, 6>(t246, t207);
        const Q t348 = flipped<0, 1, 0, 1>(t347);
        // complex block of 2
        const Q t349 = t346 + t348;
        const Q t350 = t346 - t348;
        const Q t351 = shuffled<1, 0, 3, 2>(t350);
        // mirrored skew block of 14
        const Q t352 = c[1] * t351;
        const Q t353 = Q(c[4], -c[4], c[4], -c[4]) * t350;
        const Q t354 = t352 + t353;
        const Q t355 = shuffled<1, 0, 3, 2>(t238);
        const Q t356 = shuffled<1, 0, 3, 2>(t215);
        // complex block of 2
        const Q t357 = t355 - t356;
        const Q t358 = t356 + t355;
        // mirrored skew block of 14
        const Q t359 = Q(-c[3], c[3], -c[3], c[3]) * t358;
        const Q t360 = shuffled<1, 0, 3, 2>(t358);
        const Q t361 = c[0] * t360;
        const Q t362 = t359 + t361;
        const P t363 = part<0>(t357);
        const P t364 = part<1>(t357);
        const P t365 = shuffled<0, 2>(t363, t364);
        const P t366 = part<0>(t362);
        const P t367 = part<1>(t362);
        const P t368 = shuffled<0, 2>(t366, t367);
        const Q t369 = joined(t365, t368);
        const P t370 = part<0>(t349);
        const P t371 = part<1>(t349);
        const P t372 = shuffled<0, 2>(t370, t371);
        const P t373 = part<0>(t354);
        const P t374 = part<1>(t354);
        const P t375 = shuffled<0, 2>(t373, t374);
        const Q t376 = joined(t372, t375);
        // spectrum block of 7, multiplier 2
        const Q t377 = t369 + t376;
        const P t378 = part<0>(t340);
        const P t379 = part<1>(t340);
        const P t380 = shuffled<0, 2>(t378, t379);
        const P t381 = part<0>(t345);
        const P t382 = part<1>(t345);
        const P t383 = shuffled<0, 2>(t381, t382);
        const Q t384 = joined(t380, t383);
        const Q t385 = t377 + t384;
        const P t386 = part<0>(t230);
        const P t387 = part<1>(t230);
        const P t388 = shuffled<1, 3>(t386, t387);
        const P t389 = part<0>(t230);
        const P t390 = part<1>(t230);
        const P t391 = shuffled<0, 2>(t389, t390);
        const Q t392 = joined(t388, t391);
        const Q t393 = t385 + t392;
        const P t394 = part<1>(t310);
        const P t395 = part<1>(t393);
        const P t396 = shuffled<1, 3>(t394, t395);
        io.pair(1, t396);
        const P t397 = part<0>(t289);
        const P t398 = part<0>(t393);
        const P t399 = shuffled<0, 2>(t397, t398);
        io.pair(2, t399);
        const P t400 = shuffled<1, 3>(t397, t398);
        io.pair(27, negated<0, 1>(t400));
        const P t401 = shuffled<0, 2>(t394, t395);
        io.pair(28, negated<0, 1>(t401));
        const Q t402 = c[1] * t369;
        const Q t403 = c[2] * t376;
        const Q t404 = t402 - t403;
        const Q t405 = c[0] * t384;
        const Q t406 = t404 - t405;
        const Q t407 = t406 + t392;
        const P t408 = shuffled<1, 3>(t363, t364);
        const P t409 = shuffled<1, 3>(t366, t367);
        const Q t410 = joined(t408, t409);
        const Q t411 = c[4] * t410;
        const P t412 = shuffled<1, 3>(t370, t371);
        const P t413 = shuffled<1, 3>(t373, t374);
        const Q t414 = joined(t412, t413);
        const Q t415 = Q(c[5], c[5], -c[5], -c[5]) * t414;
        const Q t416 = t411 + t415;
        const P t417 = shuffled<1, 3>(t378, t379);
        const P t418 = shuffled<1, 3>(t381, t382);
        const Q t419 = joined(t417, t418);
        const Q t420 = Q(c[3], c[3], -c[3], -c[3]) * t419;
        const Q t421 = t416 + t420;
        const Q t422 = flipped<0, 0, 1, 1>(t421);
        const Q t423 = t407 + t422;
        const P t424 = part<1>(t336);
        const P t425 = part<1>(t423);
        const P t426 = shuffled<1, 3>(t424, t425);
        io.pair(7, t426);
        const P t427 = part<0>(t323);
        const P t428 = part<0>(t423);
        const P t429 = shuffled<0, 2>(t427, t428);
        io.pair(14, t429);
        const P t430 = shuffled<1, 3>(t427, t428);
        io.pair(15, negated<0, 1>(t430));
        const P t431 = shuffled<0, 2>(t424, t425);
        io.pair(22, negated<0, 1>(t431));
        const Q t432 = t407 - t422;
        const P t433 = part<1>(t311);
        const P t434 = part<1>(t432);
        const P t435 = shuffled<0, 2>(t433, t434);
        io.pair(4, negated<0, 1>(t435));
        const P t436 = part<0>(t324);
        const P t437 = part<0>(t432);
        const P t438 = shuffled<0, 2>(t436, t437);
        io.pair(8, negated<0, 1>(t438));
        const P t439 = shuffled<1, 3>(t436, t437);
        io.pair(21, t439);
        const P t440 = shuffled<1, 3>(t433, t434);
        io.pair(25, t440);
        const Q t441 = c[2] * t369;
        const Q t442 = t392 - t441;
        const Q t443 = c[0] * t376;
        const Q t444 = t442 - t443;
        const Q t445 = c[1] * t384;
        const Q t446 = t444 + t445;
        const Q t447 = Q(-c[5], -c[5], c[5], c[5]) * t410;
        const Q t448 = c[3] * t414;
        const Q t449 = t447 + t448;
        const Q t450 = c[4] * t419;
        const Q t451 = t449 + t450;
        const Q t452 = t446 - t451;
        const P t453 = part<1>(t324);
        const P t454 = part<1>(t452);
        const P t455 = shuffled<1, 3>(t453, t454);
        io.pair(9, negated<0, 1>(t455));
        const P t456 = part<0>(t337);
        const P t457 = part<0>(t452);
        const P t458 = shuffled<1, 3>(t456, t457);
        io.pair(11, t458);
        const P t459 = shuffled<0, 2>(t456, t457);
        io.pair(18, negated<0, 1>(t459));
        const P t460 = shuffled<0, 2>(t453, t454);
        io.pair(20, t460);
        const Q t461 = t446 + t451;
        const P t462 = part<0>(t336);
        const P t463 = part<0>(t461);
        const P t464 = shuffled<1, 3>(t462, t463);
        io.pair(3, t464);
        const P t465 = part<1>(t337);
        const P t466 = part<1>(t461);
        const P t467 = shuffled<1, 3>(t465, t466);
        io.pair(13, negated<0, 1>(t467));
        const P t468 = shuffled<0, 2>(t465, t466);
        io.pair(16, t468);
        const P t469 = shuffled<0, 2>(t462, t463);
        io.pair(26, negated<0, 1>(t469));
        const Q t470 = c[0] * t369;
        const Q t471 = t392 - t470;
        const Q t472 = c[1] * t376;
        const Q t473 = t471 + t472;
        const Q t474 = c[2] * t384;
        const Q t475 = t473 - t474;
        const Q t476 = Q(-c[3], -c[3], c[3], c[3]) * t410;
        const Q t477 = c[4] * t414;
        const Q t478 = t476 + t477;
        const Q t479 = c[5] * t419;
        const Q t480 = t478 - t479;
        const Q t481 = t475 - t480;
        const P t482 = part<1>(t289);
        const P t483 = part<1>(t481);
        const P t484 = shuffled<1, 3>(t482, t483);
        io.pair(5, negated<0, 1>(t484));
        const P t485 = part<0>(t311);
        const P t486 = part<0>(t481);
        const P t487 = shuffled<0, 2>(t485, t486);
        io.pair(10, negated<0, 1>(t487));
        const P t488 = shuffled<1, 3>(t485, t486);
        io.pair(19, t488);
        const P t489 = shuffled<0, 2>(t482, t483);
        io.pair(24, t489);
        const Q t490 = t475 + t480;
        const P t491 = part<1>(t323);
        const P t492 = part<1>(t490);
        const P t493 = shuffled<0, 2>(t491, t492);
        io.pair(6, negated<0, 1>(t493));
        const P t494 = part<0>(t310);
        const P t495 = part<0>(t490);
        const P t496 = shuffled<0, 2>(t494, t495);
        io.pair(12, negated<0, 1>(t496));
        const P t497 = shuffled<1, 3>(t494, t495);
        io.pair(17, t497);
        const P t498 = shuffled<1, 3>(t491, t492);
        io.pair(23, t498);
    }
};

}  // namespace zulg
