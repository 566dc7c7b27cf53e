// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 58.
// Complex DFT of 58 points, prime-factor, order 29, 2; two lines of a stage to a register.
// 189 sums, 169 differences, 198 products of registers, which do the 2336 steps of the graph, those with
// `scale` included; 75 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<58> {
    static constexpr int steps = 2336;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.3219828698364479,  // c[6]: Q[1] of 29
        0.21044290248272673,  // c[7]: P[1] of 29
        0.3298297662985413,  // c[8]: P[2] of 29
        0.19791793485411824,  // c[9]: Q[2] of 29
        0.012126226322052493,  // c[10]: -Q[3] of 29
        0.384463442096457,  // c[11]: P[3] of 29
        0.3609030660383976,  // c[12]: P[4] of 29
        0.1330720128259635,  // c[13]: -Q[4] of 29
        0.13150502224471186,  // c[14]: -P[5] of 29
        0.36147698792300353,  // c[15]: Q[5] of 29
        0.38084126020120657,  // c[16]: P[6] of 29
        0.054028864524680344,  // c[17]: -Q[6] of 29
        0.07274108340629196,  // c[18]: -Q[7] of 29
        0.3777140697119294,  // c[19]: P[7] of 29
        0.2786653006997481,  // c[20]: P[8] of 29
        0.26515058713755163,  // c[21]: Q[8] of 29
        0.13446199615788765,  // c[22]: -Q[9] of 29
        0.3603875070846735,  // c[23]: -P[9] of 29
        0.2987602224736465,  // c[24]: -P[10] of 29
        0.24228395147216553,  // c[25]: -Q[10] of 29
        0.38413584113980626,  // c[26]: -Q[11] of 29
        0.019970959548377194,  // c[27]: P[11] of 29
        0.08413784916151361,  // c[28]: P[12] of 29
        0.3753398540149231,  // c[29]: -Q[12] of 29
        0.3398943908268515,  // c[30]: Q[13] of 29
        0.1800860537573993,  // c[31]: P[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x2_31 = io.pairs(2, 31);
        const Q x56_27 = io.pairs(56, 27);
        // real block of 2
        const Q t0 = x2_31 + x56_27;
        const Q t1 = x2_31 - x56_27;
        const Q x24_53 = io.pairs(24, 53);
        const Q x34_5 = io.pairs(34, 5);
        // real block of 2
        const Q t2 = x24_53 + x34_5;
        const Q t3 = x24_53 - x34_5;
        // real block of 2
        const Q t4 = t0 + t2;
        const Q t5 = t0 - t2;
        const Q x32_3 = io.pairs(32, 3);
        const Q x26_55 = io.pairs(26, 55);
        // real block of 2
        const Q t6 = x32_3 + x26_55;
        const Q t7 = x32_3 - x26_55;
        const Q x36_7 = io.pairs(36, 7);
        const Q x22_51 = io.pairs(22, 51);
        // real block of 2
        const Q t8 = x36_7 + x22_51;
        const Q t9 = x36_7 - x22_51;
        // real block of 2
        const Q t10 = t6 + t8;
        const Q t11 = t6 - t8;
        const Q x48_19 = io.pairs(48, 19);
        const Q x10_39 = io.pairs(10, 39);
        // real block of 2
        const Q t12 = x48_19 + x10_39;
        const Q t13 = x48_19 - x10_39;
        const Q x54_25 = io.pairs(54, 25);
        const Q x4_33 = io.pairs(4, 33);
        // real block of 2
        const Q t14 = x54_25 + x4_33;
        const Q t15 = x54_25 - x4_33;
        // real block of 2
        const Q t16 = t12 + t14;
        const Q t17 = t12 - t14;
        const Q x14_43 = io.pairs(14, 43);
        const Q x44_15 = io.pairs(44, 15);
        // real block of 2
        const Q t18 = x14_43 + x44_15;
        const Q t19 = x14_43 - x44_15;
        const Q x52_23 = io.pairs(52, 23);
        const Q x6_35 = io.pairs(6, 35);
        // real block of 2
        const Q t20 = x52_23 + x6_35;
        const Q t21 = x52_23 - x6_35;
        // real block of 2
        const Q t22 = t18 + t20;
        const Q t23 = t18 - t20;
        const Q x50_21 = io.pairs(50, 21);
        const Q x8_37 = io.pairs(8, 37);
        // real block of 2
        const Q t24 = x50_21 + x8_37;
        const Q t25 = x50_21 - x8_37;
        const Q x20_49 = io.pairs(20, 49);
        const Q x38_9 = io.pairs(38, 9);
        // real block of 2
        const Q t26 = x20_49 + x38_9;
        const Q t27 = x20_49 - x38_9;
        // real block of 2
        const Q t28 = t24 + t26;
        const Q t29 = t24 - t26;
        const Q x46_17 = io.pairs(46, 17);
        const Q x12_41 = io.pairs(12, 41);
        // real block of 2
        const Q t30 = x46_17 + x12_41;
        const Q t31 = x46_17 - x12_41;
        const Q x30_1 = io.pairs(30, 1);
        const Q x28_57 = io.pairs(28, 57);
        // real block of 2
        const Q t32 = x30_1 + x28_57;
        const Q t33 = x30_1 - x28_57;
        // real block of 2
        const Q t34 = t30 + t32;
        const Q t35 = t30 - t32;
        const Q x40_11 = io.pairs(40, 11);
        const Q x18_47 = io.pairs(18, 47);
        // real block of 2
        const Q t36 = x40_11 + x18_47;
        const Q t37 = x40_11 - x18_47;
        const Q x16_45 = io.pairs(16, 45);
        const Q x42_13 = io.pairs(42, 13);
        // real block of 2
        const Q t38 = x16_45 + x42_13;
        const Q t39 = x16_45 - x42_13;
        // real block of 2
        const Q t40 = t36 + t38;
        const Q t41 = t36 - t38;
        // real block of 7, multiplier 4
        const Q t42 = t10 + t40;
        const Q t43 = t10 - t40;
        const Q t44 = t34 + t16;
        const Q t45 = t34 - t16;
        const Q t46 = t28 + t22;
        const Q t47 = t28 - t22;
        const Q t48 = t42 + t44;
        const Q t49 = t48 + t46;
        const Q t50 = t49 + t4;
        const Q t51 = c[0] * t42;
        const Q t52 = t4 - t51;
        const Q t53 = c[1] * t44;
        const Q t54 = t52 + t53;
        const Q t55 = c[2] * t46;
        const Q t56 = t54 - t55;
        const Q t57 = c[3] * t43;
        const Q t58 = c[4] * t45;
        const Q t59 = t57 + t58;
        const Q t60 = c[5] * t47;
        const Q t61 = t59 - t60;
        const Q t62 = c[1] * t42;
        const Q t63 = c[2] * t44;
        const Q t64 = t62 - t63;
        const Q t65 = c[0] * t46;
        const Q t66 = t64 - t65;
        const Q t67 = t66 + t4;
        const Q t68 = c[5] * t45;
        const Q t69 = c[3] * t47;
        const Q t70 = t68 + t69;
        const Q t71 = c[4] * t43;
        const Q t72 = t70 - t71;
        const Q t73 = c[2] * t42;
        const Q t74 = t4 - t73;
        const Q t75 = c[0] * t44;
        const Q t76 = t74 - t75;
        const Q t77 = c[1] * t46;
        const Q t78 = t76 + t77;
        const Q t79 = c[5] * t43;
        const Q t80 = c[3] * t45;
        const Q t81 = t79 + t80;
        const Q t82 = c[4] * t47;
        const Q t83 = t81 + t82;
        // complex block of 7, multiplier 4
        const Q t84 = t7 + t37;
        const Q t85 = t9 + t39;
        const Q t86 = t7 - t37;
        const Q t87 = t9 - t39;
        const Q t88 = t31 + t13;
        const Q t89 = t33 + t15;
        const Q t90 = t31 - t13;
        const Q t91 = t33 - t15;
        const Q t92 = t25 + t19;
        const Q t93 = t27 + t21;
        const Q t94 = t25 - t19;
        const Q t95 = t27 - t21;
        const Q t96 = t84 + t88;
        const Q t97 = t96 + t92;
        const Q t98 = t85 + t89;
        const Q t99 = t98 + t93;
        const Q t100 = t97 + t1;
        const Q t101 = t99 + t3;
        const Q t102 = c[1] * t84;
        const Q t103 = c[2] * t88;
        const Q t104 = t102 - t103;
        const Q t105 = c[0] * t92;
        const Q t106 = t104 - t105;
        const Q t107 = t106 + t1;
        const Q t108 = c[1] * t85;
        const Q t109 = c[2] * t89;
        const Q t110 = t108 - t109;
        const Q t111 = c[0] * t93;
        const Q t112 = t110 - t111;
        const Q t113 = t112 + t3;
        const Q t114 = c[4] * t86;
        const Q t115 = c[5] * t90;
        const Q t116 = t114 - t115;
        const Q t117 = c[3] * t94;
        const Q t118 = t116 - t117;
        const Q t119 = c[4] * t87;
        const Q t120 = c[5] * t91;
        const Q t121 = t119 - t120;
        const Q t122 = c[3] * t95;
        const Q t123 = t121 - t122;
        const Q t124 = t107 + t123;
        const Q t125 = t113 - t118;
        const Q t126 = t107 - t123;
        const Q t127 = t113 + t118;
        const Q t128 = c[2] * t84;
        const Q t129 = t1 - t128;
        const Q t130 = c[0] * t88;
        const Q t131 = t129 - t130;
        const Q t132 = c[1] * t92;
        const Q t133 = t131 + t132;
        const Q t134 = c[2] * t85;
        const Q t135 = t3 - t134;
        const Q t136 = c[0] * t89;
        const Q t137 = t135 - t136;
        const Q t138 = c[1] * t93;
        const Q t139 = t137 + t138;
        const Q t140 = c[5] * t86;
        const Q t141 = c[3] * t90;
        const Q t142 = t140 + t141;
        const Q t143 = c[4] * t94;
        const Q t144 = t142 + t143;
        const Q t145 = c[5] * t87;
        const Q t146 = c[3] * t91;
        const Q t147 = t145 + t146;
        const Q t148 = c[4] * t95;
        const Q t149 = t147 + t148;
        const Q t150 = t133 + t149;
        const Q t151 = t139 - t144;
        const Q t152 = t133 - t149;
        const Q t153 = t139 + t144;
        const Q t154 = c[0] * t84;
        const Q t155 = t1 - t154;
        const Q t156 = c[1] * t88;
        const Q t157 = t155 + t156;
        const Q t158 = c[2] * t92;
        const Q t159 = t157 - t158;
        const Q t160 = c[0] * t85;
        const Q t161 = t3 - t160;
        const Q t162 = c[1] * t89;
        const Q t163 = t161 + t162;
        const Q t164 = c[2] * t93;
        const Q t165 = t163 - t164;
        const Q t166 = c[3] * t86;
        const Q t167 = c[4] * t90;
        const Q t168 = t166 + t167;
        const Q t169 = c[5] * t94;
        const Q t170 = t168 - t169;
        const Q t171 = c[3] * t87;
        const Q t172 = c[4] * t91;
        const Q t173 = t171 + t172;
        const Q t174 = c[5] * t95;
        const Q t175 = t173 - t174;
        const Q t176 = t159 + t175;
        const Q t177 = t165 - t170;
        const Q t178 = t159 - t175;
        const Q t179 = t165 + t170;
        // real block of 7, multiplier 4
        const Q t180 = t11 + t41;
        const Q t181 = t11 - t41;
        const Q t182 = t35 + t17;
        const Q t183 = t35 - t17;
        const Q t184 = t29 + t23;
        const Q t185 = t29 - t23;
        const Q t186 = t180 + t182;
        const Q t187 = t186 + t184;
        const Q t188 = t187 + t5;
        const Q t189 = c[0] * t180;
        const Q t190 = t5 - t189;
        const Q t191 = c[1] * t182;
        const Q t192 = t190 + t191;
        const Q t193 = c[2] * t184;
        const Q t194 = t192 - t193;
        const Q t195 = c[3] * t181;
        const Q t196 = c[4] * t183;
        const Q t197 = t195 + t196;
        const Q t198 = c[5] * t185;
        const Q t199 = t197 - t198;
        const Q t200 = c[1] * t180;
        const Q t201 = c[2] * t182;
        const Q t202 = t200 - t201;
        const Q t203 = c[0] * t184;
        const Q t204 = t202 - t203;
        const Q t205 = t204 + t5;
        const Q t206 = c[5] * t183;
        const Q t207 = c[3] * t185;
        const Q t208 = t206 + t207;
        const Q t209 = c[4] * t181;
        const Q t210 = t208 - t209;
        const Q t211 = c[2] * t180;
        const Q t212 = t5 - t211;
        const Q t213 = c[0] * t182;
        const Q t214 = t212 - t213;
        const Q t215 = c[1] * t184;
        const Q t216 = t214 + t215;
        const Q t217 = c[5] * t181;
        const Q t218 = c[3] * t183;
        const Q t219 = t217 + t218;
        const Q t220 = c[4] * t185;
        const Q t221 = t219 + t220;
        const Q x0_29 = io.pairs(0, 29);
        // complex block of 29, multiplier 2
        const Q t222 = x0_29 + t50;
        const Q t223 = c[32] * t50;
        const Q t224 = x0_29 - t223;
        const Q t225 = shuffled<1, 0, 3, 2>(t126);
        const Q t226 = c[6] * t225;
        const Q t227 = shuffled<1, 0, 3, 2>(t127);
        const Q t228 = c[7] * t227;
        const Q t229 = t226 + t228;
        const Q t230 = Q(-c[6], c[6], -c[6], c[6]) * t227;
        const Q t231 = Q(c[7], -c[7], c[7], -c[7]) * t225;
        const Q t232 = t230 + t231;
        const Q t233 = c[8] * t216;
        const Q t234 = c[9] * t221;
        const Q t235 = t233 + t234;
        const Q t236 = c[9] * t216;
        const Q t237 = c[8] * t221;
        const Q t238 = t236 - t237;
        const Q t239 = shuffled<1, 0, 3, 2>(t176);
        const Q t240 = c[10] * t239;
        const Q t241 = shuffled<1, 0, 3, 2>(t177);
        const Q t242 = c[11] * t241;
        const Q t243 = t240 + t242;
        const Q t244 = Q(-c[10], c[10], -c[10], c[10]) * t241;
        const Q t245 = Q(c[11], -c[11], c[11], -c[11]) * t239;
        const Q t246 = t244 + t245;
        const Q t247 = c[12] * t56;
        const Q t248 = c[13] * t61;
        const Q t249 = t247 + t248;
        const Q t250 = c[12] * t61;
        const Q t251 = c[13] * t56;
        const Q t252 = t250 - t251;
        const Q t253 = shuffled<1, 0, 3, 2>(t151);
        const Q t254 = Q(-c[14], c[14], -c[14], c[14]) * t253;
        const Q t255 = shuffled<1, 0, 3, 2>(t150);
        const Q t256 = Q(c[15], -c[15], c[15], -c[15]) * t255;
        const Q t257 = t254 + t256;
        const Q t258 = c[15] * t253;
        const Q t259 = c[14] * t255;
        const Q t260 = t258 + t259;
        const Q t261 = c[16] * t205;
        const Q t262 = c[17] * t210;
        const Q t263 = t261 - t262;
        const Q t264 = c[16] * t210;
        const Q t265 = c[17] * t205;
        const Q t266 = t264 + t265;
        const Q t267 = shuffled<1, 0, 3, 2>(t100);
        const Q t268 = c[18] * t267;
        const Q t269 = shuffled<1, 0, 3, 2>(t101);
        const Q t270 = c[19] * t269;
        const Q t271 = t268 + t270;
        const Q t272 = Q(-c[18], c[18], -c[18], c[18]) * t269;
        const Q t273 = Q(c[19], -c[19], c[19], -c[19]) * t267;
        const Q t274 = t272 + t273;
        const Q t275 = c[20] * t67;
        const Q t276 = c[21] * t72;
        const Q t277 = t275 - t276;
        const Q t278 = c[20] * t72;
        const Q t279 = c[21] * t67;
        const Q t280 = t278 + t279;
        const Q t281 = shuffled<1, 0, 3, 2>(t152);
        const Q t282 = c[22] * t281;
        const Q t283 = shuffled<1, 0, 3, 2>(t153);
        const Q t284 = c[23] * t283;
        const Q t285 = t282 + t284;
        const Q t286 = Q(-c[23], c[23], -c[23], c[23]) * t281;
        const Q t287 = Q(c[22], -c[22], c[22], -c[22]) * t283;
        const Q t288 = t286 + t287;
        const Q t289 = c[24] * t194;
        const Q t290 = c[25] * t199;
        const Q t291 = t289 + t290;
        const Q t292 = c[24] * t199;
        const Q t293 = c[25] * t194;
        const Q t294 = t292 - t293;
        const Q t295 = shuffled<1, 0, 3, 2>(t178);
        const Q t296 = c[26] * t295;
        const Q t297 = shuffled<1, 0, 3, 2>(t179);
        const Q t298 = c[27] * t297;
        const Q t299 = t296 + t298;
        const Q t300 = Q(-c[26], c[26], -c[26], c[26]) * t297;
        const Q t301 = Q(c[27], -c[27], c[27], -c[27]) * t295;
        const Q t302 = t300 + t301;
        const Q t303 = c[28] * t78;
        const Q t304 = c[29] * t83;
        const Q t305 = t303 + t304;
        const Q t306 = c[28] * t83;
        const Q t307 = c[29] * t78;
        const Q t308 = t306 - t307;
        const Q t309 = shuffled<1, 0, 3, 2>(t124);
        const Q t310 = c[30] * t309;
        const Q t311 = shuffled<1, 0, 3, 2>(t125);
        const Q t312 = c[31] * t311;
        const Q t313 = t310 + t312;
        const Q t314 = Q(-c[30], c[30], -c[30], c[30]) * t311;
        const Q t315 = Q(c[31], -c[31], c[31], -c[31]) * t309;
        const Q t316 = t314 + t315;
        const Q t317 = c[33] * t188;
        // spectrum block of 2
        const Q t318 = t224 - t317;
        const Q t319 = t224 + t317;
        const Q t320 = flipped<1, 0, 1, 0>(t271);
        // spectrum block of 2
        const Q t321 = t318 + t320;
        const Q t322 = t318 - t320;
        // spectrum block of 2
        const Q t323 = t319 + t274;
        const Q t324 = t319 - t274;
        // complex block of 2
        const Q t325 = t252 - t294;
        const Q t326 = t249 - t291;
        const Q t327 = t252 + t294;
        const Q t328 = t249 + t291;
        // complex block of 2
        const Q t329 = t302 - t246;
        const Q t330 = t299 + t243;
        const Q t331 = t302 + t246;
        const Q t332 = shuffled<0, 5, 2, 7>(t243, t299);
        const Q t333 = shuffled<0, 5, 2, 7>(t299, t243);
        const Q t334 = t332 - t333;
        // complex block of 2
        const Q t335 = t325 + t329;
        const Q t336 = flipped<1, 0, 1, 0>(t330);
        const Q t337 = t326 + t336;
        const Q t338 = t325 - t329;
        const Q t339 = t326 - t336;
        // complex block of 2
        const Q t340 = t327 - t334;
        const Q t341 = t328 + t331;
        const Q t342 = t327 + t334;
        const Q t343 = t328 - t331;
        // complex block of 2
        const Q t344 = t280 + t266;
        const Q t345 = t277 + t263;
        const Q t346 = t280 - t266;
        const Q t347 = t277 - t263;
        // complex block of 2
        const Q t348 = t232 - t316;
        const Q t349 = t313 + t229;
        const Q t350 = t316 + t232;
        const Q t351 = shuffled<0, 5, 2, 7>(t313, t229);
        const Q t352 = shuffled<0, 5, 2, 7>(t229, t313);
        const Q t353 = t351 - t352;
        // complex block of 2
        const Q t354 = t344 + t348;
        const Q t355 = flipped<0, 1, 0, 1>(t349);
        const Q t356 = t345 + t355;
        const Q t357 = t344 - t348;
        const Q t358 = t345 - t355;
        // complex block of 2
        const Q t359 = t346 - t353;
        const Q t360 = t347 - t350;
        const Q t361 = t346 + t353;
        const Q t362 = t347 + t350;
        // complex block of 2
        const Q t363 = t308 - t238;
        const Q t364 = t305 + t235;
        const Q t365 = t308 + t238;
        const Q t366 = t305 - t235;
        const Q t367 = flipped<0, 1, 0, 1>(t288);
        // complex block of 2
        const Q t368 = t260 + t367;
        const Q t369 = flipped<1, 0, 1, 0>(t285);
        const Q t370 = t369 + t257;
        const Q t371 = t260 - t367;
        const Q t372 = flipped<0, 1, 0, 1>(t257);
        const Q t373 = t285 + t372;
        const Q t374 = flipped<1, 0, 1, 0>(t368);
        // complex block of 2
        const Q t375 = t363 + t374;
        const Q t376 = t364 + t370;
        const Q t377 = t363 - t374;
        const Q t378 = t364 - t370;
        const Q t379 = flipped<0, 1, 0, 1>(t373);
        // complex block of 2
        const Q t380 = t365 + t379;
        const Q t381 = flipped<0, 1, 0, 1>(t371);
        const Q t382 = t366 + t381;
        const Q t383 = t365 - t379;
        const Q t384 = t366 - t381;
        // spectrum block of 7, multiplier 4
        const Q t385 = t337 + t356;
        const Q t386 = t385 + t376;
        const Q t387 = t386 + t321;
        const Q t388 = c[1] * t337;
        const Q t389 = c[2] * t356;
        const Q t390 = t388 - t389;
        const Q t391 = c[0] * t376;
        const Q t392 = t390 - t391;
        const Q t393 = t392 + t321;
        const Q t394 = c[4] * t335;
        const Q t395 = c[5] * t354;
        const Q t396 = t394 + t395;
        const Q t397 = c[3] * t375;
        const Q t398 = t396 + t397;
        const Q t399 = t393 - t398;
        const Q t400 = t393 + t398;
        const Q t401 = c[2] * t337;
        const Q t402 = t321 - t401;
        const Q t403 = c[0] * t356;
        const Q t404 = t402 - t403;
        const Q t405 = c[1] * t376;
        const Q t406 = t404 + t405;
        const Q t407 = c[5] * t335;
        const Q t408 = c[3] * t354;
        const Q t409 = t407 - t408;
        const Q t410 = c[4] * t375;
        const Q t411 = t409 - t410;
        const Q t412 = t406 - t411;
        const Q t413 = t406 + t411;
        const Q t414 = c[0] * t337;
        const Q t415 = t321 - t414;
        const Q t416 = c[1] * t356;
        const Q t417 = t415 + t416;
        const Q t418 = c[2] * t376;
        const Q t419 = t417 - t418;
        const Q t420 = c[3] * t335;
        const Q t421 = c[4] * t354;
        const Q t422 = t420 - t421;
        const Q t423 = c[5] * t375;
        const Q t424 = t422 + t423;
        const Q t425 = t419 - t424;
        const Q t426 = t419 + t424;
        // spectrum block of 7, multiplier 4
        const Q t427 = t341 + t360;
        const Q t428 = t427 + t382;
        const Q t429 = t428 + t323;
        const Q t430 = c[1] * t341;
        const Q t431 = c[2] * t360;
        const Q t432 = t430 - t431;
        const Q t433 = c[0] * t382;
        const Q t434 = t432 - t433;
        const Q t435 = t434 + t323;
        const Q t436 = c[4] * t340;
        const Q t437 = c[5] * t359;
        const Q t438 = t436 + t437;
        const Q t439 = c[3] * t380;
        const Q t440 = t438 + t439;
        const Q t441 = t435 - t440;
        const Q t442 = t435 + t440;
        const Q t443 = c[2] * t341;
        const Q t444 = t323 - t443;
        const Q t445 = c[0] * t360;
        const Q t446 = t444 - t445;
        const Q t447 = c[1] * t382;
        const Q t448 = t446 + t447;
        const Q t449 = c[5] * t340;
        const Q t450 = c[3] * t359;
        const Q t451 = t449 - t450;
        const Q t452 = c[4] * t380;
        const Q t453 = t451 - t452;
        const Q t454 = t448 - t453;
        const Q t455 = t448 + t453;
        const Q t456 = c[0] * t341;
        const Q t457 = t323 - t456;
        const Q t458 = c[1] * t360;
        const Q t459 = t457 + t458;
        const Q t460 = c[2] * t382;
        const Q t461 = t459 - t460;
        const Q t462 = c[3] * t340;
        const Q t463 = c[4] * t359;
        const Q t464 = t462 - t463;
        const Q t465 = c[5] * t380;
        const Q t466 = t464 + t465;
        const Q t467 = t461 - t466;
        const Q t468 = t461 + t466;
        // spectrum block of 7, multiplier 4
        const Q t469 = t339 + t358;
        const Q t470 = t469 + t378;
        const Q t471 = t470 + t322;
        const Q t472 = c[1] * t339;
        const Q t473 = c[2] * t358;
        const Q t474 = t472 - t473;
        const Q t475 = c[0] * t378;
        const Q t476 = t474 - t475;
        const Q t477 = t476 + t322;
        const Q t478 = c[4] * t338;
        const Q t479 = c[5] * t357;
        const Q t480 = t478 + t479;
        const Q t481 = c[3] * t377;
        const Q t482 = t480 + t481;
        const Q t483 = t477 - t482;
        const Q t484 = t477 + t482;
        const Q t485 = c[2] * t339;
        const Q t486 = t322 - t485;
        const Q t487 = c[0] * t358;
        const Q t488 = t486 - t487;
        const Q t489 = c[1] * t378;
        const Q t490 = t488 + t489;
        const Q t491 = c[5] * t338;
        const Q t492 = c[3] * t357;
        const Q t493 = t491 - t492;
        const Q t494 = c[4] * t377;
        const Q t495 = t493 - t494;
        const Q t496 = t490 - t495;
        const Q t497 = t490 + t495;
        const Q t498 = c[0] * t339;
        const Q t499 = t322 - t498;
        const Q t500 = c[1] * t358;
        const Q t501 = t499 + t500;
        const Q t502 = c[2] * t378;
        const Q t503 = t501 - t502;
        const Q t504 = c[3] * t338;
        const Q t505 = c[4] * t357;
        const Q t506 = t504 - t505;
        const Q t507 = c[5] * t377;
        const Q t508 = t506 + t507;
        const Q t509 = t503 - t508;
        const Q t510 = t503 + t508;
        // spectrum block of 7, multiplier 4
        const Q t511 = t343 + t362;
        const Q t512 = t511 + t384;
        const Q t513 = t512 + t324;
        const Q t514 = c[1] * t343;
        const Q t515 = c[2] * t362;
        const Q t516 = t514 - t515;
        const Q t517 = c[0] * t384;
        const Q t518 = t516 - t517;
        const Q t519 = t518 + t324;
        const Q t520 = c[4] * t342;
        const Q t521 = c[5] * t361;
        const Q t522 = t520 + t521;
        const Q t523 = c[3] * t383;
        const Q t524 = t522 + t523;
        const Q t525 = t519 - t524;
        const Q t526 = t519 + t524;
        const Q t527 = c[2] * t343;
        const Q t528 = t324 - t527;
        const Q t529 = c[0] * t362;
        const Q t530 = t528 - t529;
        const Q t531 = c[1] * t384;
        const Q t532 = t530 + t531;
        const Q t533 = c[5] * t342;
        const Q t534 = c[3] * t361;
        const Q t535 = t533 - t534;
        const Q t536 = c[4] * t383;
        const Q t537 = t535 - t536;
        const Q t538 = t532 - t537;
        const Q t539 = t532 + t537;
        const Q t540 = c[0] * t343;
        const Q t541 = t324 - t540;
        const Q t542 = c[1] * t362;
        const Q t543 = t541 + t542;
        const Q t544 = c[2] * t384;
        const Q t545 = t543 - t544;
        const Q t546 = c[3] * t342;
        const Q t547 = c[4] * t361;
        const Q t548 = t546 - t547;
        const Q t549 = c[5] * t383;
        const Q t550 = t548 + t549;
        const Q t551 = t545 - t550;
        const Q t552 = t545 + t550;
        const P t553 = part<0>(t441);
        const P t554 = part<1>(t441);
        // complex block of 2
        const P t555 = t553 + t554;
        io.pair(28, t555);
        const P t556 = t553 - t554;
        io.pair(57, t556);
        const Q t557 = shuffled<0, 1, 4, 5>(t222, t525);
        const Q t558 = shuffled<2, 3, 6, 7>(t222, t525);
        // complex block of 2
        const Q t559 = t557 + t558;
        const Q t560 = t557 - t558;
        const Q t561 = shuffled<0, 1, 6, 7>(t559, t560);
        io.pairs(0, 1, t561);
        const Q t562 = shuffled<0, 1, 6, 7>(t560, t559);
        io.pairs(29, 30, t562);
        const Q t563 = shuffled<0, 1, 4, 5>(t387, t425);
        const Q t564 = shuffled<2, 3, 6, 7>(t387, t425);
        // complex block of 2
        const Q t565 = t563 + t564;
        const Q t566 = t563 - t564;
        const Q t567 = shuffled<0, 1, 6, 7>(t565, t566);
        io.pairs(2, 3, t567);
        const Q t568 = shuffled<0, 1, 6, 7>(t566, t565);
        io.pairs(31, 32, t568);
        const Q t569 = shuffled<0, 1, 4, 5>(t442, t429);
        const Q t570 = shuffled<2, 3, 6, 7>(t442, t429);
        // complex block of 2
        const Q t571 = t569 + t570;
        const Q t572 = t569 - t570;
        const Q t573 = shuffled<0, 1, 6, 7>(t571, t572);
        io.pairs(4, 5, t573);
        const Q t574 = shuffled<0, 1, 6, 7>(t572, t571);
        io.pairs(33, 34, t574);
        const Q t575 = shuffled<0, 1, 4, 5>(t454, t551);
        const Q t576 = shuffled<2, 3, 6, 7>(t454, t551);
        // complex block of 2
        const Q t577 = t575 + t576;
        const Q t578 = t575 - t576;
        const Q t579 = shuffled<0, 1, 6, 7>(t577, t578);
        io.pairs(6, 7, t579);
        const Q t580 = shuffled<0, 1, 6, 7>(t578, t577);
        io.pairs(35, 36, t580);
        const Q t581 = shuffled<0, 1, 4, 5>(t497, t455);
        const Q t582 = shuffled<2, 3, 6, 7>(t497, t455);
        // complex block of 2
        const Q t583 = t581 + t582;
        const Q t584 = t581 - t582;
        const Q t585 = shuffled<0, 1, 6, 7>(t583, t584);
        io.pairs(8, 9, t585);
        const Q t586 = shuffled<0, 1, 6, 7>(t584, t583);
        io.pairs(37, 38, t586);
        const Q t587 = shuffled<0, 1, 4, 5>(t484, t426);
        const Q t588 = shuffled<2, 3, 6, 7>(t484, t426);
        // complex block of 2
        const Q t589 = t587 + t588;
        const Q t590 = t587 - t588;
        const Q t591 = shuffled<0, 1, 6, 7>(t589, t590);
        io.pairs(10, 11, t591);
        const Q t592 = shuffled<0, 1, 6, 7>(t590, t589);
        io.pairs(39, 40, t592);
        const Q t593 = shuffled<0, 1, 4, 5>(t483, t468);
        const Q t594 = shuffled<2, 3, 6, 7>(t483, t468);
        // complex block of 2
        const Q t595 = t593 + t594;
        const Q t596 = t593 - t594;
        const Q t597 = shuffled<0, 1, 6, 7>(t595, t596);
        io.pairs(12, 13, t597);
        const Q t598 = shuffled<0, 1, 6, 7>(t596, t595);
        io.pairs(41, 42, t598);
        const Q t599 = shuffled<0, 1, 4, 5>(t412, t496);
        const Q t600 = shuffled<2, 3, 6, 7>(t412, t496);
        // complex block of 2
        const Q t601 = t599 + t600;
        const Q t602 = t599 - t600;
        const Q t603 = shuffled<0, 1, 6, 7>(t601, t602);
        io.pairs(14, 15, t603);
        const Q t604 = shuffled<0, 1, 6, 7>(t602, t601);
        io.pairs(43, 44, t604);
        const Q t605 = shuffled<0, 1, 4, 5>(t552, t399);
        const Q t606 = shuffled<2, 3, 6, 7>(t552, t399);
        // complex block of 2
        const Q t607 = t605 + t606;
        const Q t608 = t605 - t606;
        const Q t609 = shuffled<0, 1, 6, 7>(t607, t608);
        io.pairs(16, 17, t609);
        const Q t610 = shuffled<0, 1, 6, 7>(t608, t607);
        io.pairs(45, 46, t610);
        const Q t611 = shuffled<0, 1, 4, 5>(t510, t400);
        const Q t612 = shuffled<2, 3, 6, 7>(t510, t400);
        // complex block of 2
        const Q t613 = t611 + t612;
        const Q t614 = t611 - t612;
        const Q t615 = shuffled<0, 1, 6, 7>(t613, t614);
        io.pairs(18, 19, t615);
        const Q t616 = shuffled<0, 1, 6, 7>(t614, t613);
        io.pairs(47, 48, t616);
        const Q t617 = shuffled<0, 1, 4, 5>(t539, t413);
        const Q t618 = shuffled<2, 3, 6, 7>(t539, t413);
        // complex block of 2
        const Q t619 = t617 + t618;
        const Q t620 = t617 - t618;
        const Q t621 = shuffled<0, 1, 6, 7>(t619, t620);
        io.pairs(20, 21, t621);
        const Q t622 = shuffled<0, 1, 6, 7>(t620, t619);
        io.pairs(49, 50, t622);
        const Q t623 = shuffled<0, 1, 4, 5>(t467, t538);
        const Q t624 = shuffled<2, 3, 6, 7>(t467, t538);
        // complex block of 2
        const Q t625 = t623 + t624;
        const Q t626 = t623 - t624;
        const Q t627 = shuffled<0, 1, 6, 7>(t625, t626);
        io.pairs(22, 23, t627);
        const Q t628 = shuffled<0, 1, 6, 7>(t626, t625);
        io.pairs(51, 52, t628);
        const Q t629 = shuffled<0, 1, 4, 5>(t513, t526);
        const Q t630 = shuffled<2, 3, 6, 7>(t513, t526);
        // complex block of 2
        const Q t631 = t629 + t630;
        const Q t632 = t629 - t630;
        const Q t633 = shuffled<0, 1, 6, 7>(t631, t632);
        io.pairs(24, 25, t633);
        const Q t634 = shuffled<0, 1, 6, 7>(t632, t631);
        io.pairs(53, 54, t634);
        const Q t635 = shuffled<0, 1, 4, 5>(t509, t471);
        const Q t636 = shuffled<2, 3, 6, 7>(t509, t471);
        // complex block of 2
        const Q t637 = t635 + t636;
        const Q t638 = t635 - t636;
        const Q t639 = shuffled<0, 1, 6, 7>(t637, t638);
        io.pairs(26, 27, t639);
        const Q t640 = shuffled<0, 1, 6, 7>(t638, t637);
        io.pairs(55, 56, t640);
    }
};

}  // namespace zulg
