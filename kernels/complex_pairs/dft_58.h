// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 58.
// Complex DFT of 58 points, prime-factor, order 29, 2; one complex number to a register.
// 377 sums, 337 differences, 396 products of registers, which do the 2336 steps of the graph, those with
// `scale` included; 36 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<58> {
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
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x2 = io.pair(2);
        const P x56 = io.pair(56);
        // real block of 2
        const P t0 = x2 + x56;
        const P t1 = x2 - x56;
        const P x24 = io.pair(24);
        const P x34 = io.pair(34);
        // real block of 2
        const P t2 = x24 + x34;
        const P t3 = x24 - x34;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x32 = io.pair(32);
        const P x26 = io.pair(26);
        // real block of 2
        const P t6 = x32 + x26;
        const P t7 = x32 - x26;
        const P x36 = io.pair(36);
        const P x22 = io.pair(22);
        // real block of 2
        const P t8 = x36 + x22;
        const P t9 = x36 - x22;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x48 = io.pair(48);
        const P x10 = io.pair(10);
        // real block of 2
        const P t12 = x48 + x10;
        const P t13 = x48 - x10;
        const P x54 = io.pair(54);
        const P x4 = io.pair(4);
        // real block of 2
        const P t14 = x54 + x4;
        const P t15 = x54 - x4;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        const P x14 = io.pair(14);
        const P x44 = io.pair(44);
        // real block of 2
        const P t18 = x14 + x44;
        const P t19 = x14 - x44;
        const P x52 = io.pair(52);
        const P x6 = io.pair(6);
        // real block of 2
        const P t20 = x52 + x6;
        const P t21 = x52 - x6;
        // real block of 2
        const P t22 = t18 + t20;
        const P t23 = t18 - t20;
        const P x50 = io.pair(50);
        const P x8 = io.pair(8);
        // real block of 2
        const P t24 = x50 + x8;
        const P t25 = x50 - x8;
        const P x20 = io.pair(20);
        const P x38 = io.pair(38);
        // real block of 2
        const P t26 = x20 + x38;
        const P t27 = x20 - x38;
        // real block of 2
        const P t28 = t24 + t26;
        const P t29 = t24 - t26;
        const P x46 = io.pair(46);
        const P x12 = io.pair(12);
        // real block of 2
        const P t30 = x46 + x12;
        const P t31 = x46 - x12;
        const P x30 = io.pair(30);
        const P x28 = io.pair(28);
        // real block of 2
        const P t32 = x30 + x28;
        const P t33 = x30 - x28;
        // real block of 2
        const P t34 = t30 + t32;
        const P t35 = t30 - t32;
        const P x40 = io.pair(40);
        const P x18 = io.pair(18);
        // real block of 2
        const P t36 = x40 + x18;
        const P t37 = x40 - x18;
        const P x16 = io.pair(16);
        const P x42 = io.pair(42);
        // real block of 2
        const P t38 = x16 + x42;
        const P t39 = x16 - x42;
        // real block of 2
        const P t40 = t36 + t38;
        const P t41 = t36 - t38;
        // real block of 7, multiplier 4
        const P t42 = t10 + t40;
        const P t43 = t10 - t40;
        const P t44 = t34 + t16;
        const P t45 = t34 - t16;
        const P t46 = t28 + t22;
        const P t47 = t28 - t22;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P t50 = t49 + t4;
        const P t51 = c[0] * t42;
        const P t52 = t4 - t51;
        const P t53 = c[1] * t44;
        const P t54 = t52 + t53;
        const P t55 = c[2] * t46;
        const P t56 = t54 - t55;
        const P t57 = c[3] * t43;
        const P t58 = c[4] * t45;
        const P t59 = t57 + t58;
        const P t60 = c[5] * t47;
        const P t61 = t59 - t60;
        const P t62 = c[1] * t42;
        const P t63 = c[2] * t44;
        const P t64 = t62 - t63;
        const P t65 = c[0] * t46;
        const P t66 = t64 - t65;
        const P t67 = t66 + t4;
        const P t68 = c[5] * t45;
        const P t69 = c[3] * t47;
        const P t70 = t68 + t69;
        const P t71 = c[4] * t43;
        const P t72 = t70 - t71;
        const P t73 = c[2] * t42;
        const P t74 = t4 - t73;
        const P t75 = c[0] * t44;
        const P t76 = t74 - t75;
        const P t77 = c[1] * t46;
        const P t78 = t76 + t77;
        const P t79 = c[5] * t43;
        const P t80 = c[3] * t45;
        const P t81 = t79 + t80;
        const P t82 = c[4] * t47;
        const P t83 = t81 + t82;
        // complex block of 7, multiplier 4
        const P t84 = t7 + t37;
        const P t85 = t9 + t39;
        const P t86 = t7 - t37;
        const P t87 = t9 - t39;
        const P t88 = t31 + t13;
        const P t89 = t33 + t15;
        const P t90 = t31 - t13;
        const P t91 = t33 - t15;
        const P t92 = t25 + t19;
        const P t93 = t27 + t21;
        const P t94 = t25 - t19;
        const P t95 = t27 - t21;
        const P t96 = t84 + t88;
        const P t97 = t96 + t92;
        const P t98 = t85 + t89;
        const P t99 = t98 + t93;
        const P t100 = t97 + t1;
        const P t101 = t99 + t3;
        const P t102 = c[1] * t84;
        const P t103 = c[2] * t88;
        const P t104 = t102 - t103;
        const P t105 = c[0] * t92;
        const P t106 = t104 - t105;
        const P t107 = t106 + t1;
        const P t108 = c[1] * t85;
        const P t109 = c[2] * t89;
        const P t110 = t108 - t109;
        const P t111 = c[0] * t93;
        const P t112 = t110 - t111;
        const P t113 = t112 + t3;
        const P t114 = c[4] * t86;
        const P t115 = c[5] * t90;
        const P t116 = t114 - t115;
        const P t117 = c[3] * t94;
        const P t118 = t116 - t117;
        const P t119 = c[4] * t87;
        const P t120 = c[5] * t91;
        const P t121 = t119 - t120;
        const P t122 = c[3] * t95;
        const P t123 = t121 - t122;
        const P t124 = t107 + t123;
        const P t125 = t113 - t118;
        const P t126 = t107 - t123;
        const P t127 = t113 + t118;
        const P t128 = c[2] * t84;
        const P t129 = t1 - t128;
        const P t130 = c[0] * t88;
        const P t131 = t129 - t130;
        const P t132 = c[1] * t92;
        const P t133 = t131 + t132;
        const P t134 = c[2] * t85;
        const P t135 = t3 - t134;
        const P t136 = c[0] * t89;
        const P t137 = t135 - t136;
        const P t138 = c[1] * t93;
        const P t139 = t137 + t138;
        const P t140 = c[5] * t86;
        const P t141 = c[3] * t90;
        const P t142 = t140 + t141;
        const P t143 = c[4] * t94;
        const P t144 = t142 + t143;
        const P t145 = c[5] * t87;
        const P t146 = c[3] * t91;
        const P t147 = t145 + t146;
        const P t148 = c[4] * t95;
        const P t149 = t147 + t148;
        const P t150 = t133 + t149;
        const P t151 = t139 - t144;
        const P t152 = t133 - t149;
        const P t153 = t139 + t144;
        const P t154 = c[0] * t84;
        const P t155 = t1 - t154;
        const P t156 = c[1] * t88;
        const P t157 = t155 + t156;
        const P t158 = c[2] * t92;
        const P t159 = t157 - t158;
        const P t160 = c[0] * t85;
        const P t161 = t3 - t160;
        const P t162 = c[1] * t89;
        const P t163 = t161 + t162;
        const P t164 = c[2] * t93;
        const P t165 = t163 - t164;
        const P t166 = c[3] * t86;
        const P t167 = c[4] * t90;
        const P t168 = t166 + t167;
        const P t169 = c[5] * t94;
        const P t170 = t168 - t169;
        const P t171 = c[3] * t87;
        const P t172 = c[4] * t91;
        const P t173 = t171 + t172;
        const P t174 = c[5] * t95;
        const P t175 = t173 - t174;
        const P t176 = t159 + t175;
        const P t177 = t165 - t170;
        const P t178 = t159 - t175;
        const P t179 = t165 + t170;
        // real block of 7, multiplier 4
        const P t180 = t11 + t41;
        const P t181 = t11 - t41;
        const P t182 = t35 + t17;
        const P t183 = t35 - t17;
        const P t184 = t29 + t23;
        const P t185 = t29 - t23;
        const P t186 = t180 + t182;
        const P t187 = t186 + t184;
        const P t188 = t187 + t5;
        const P t189 = c[0] * t180;
        const P t190 = t5 - t189;
        const P t191 = c[1] * t182;
        const P t192 = t190 + t191;
        const P t193 = c[2] * t184;
        const P t194 = t192 - t193;
        const P t195 = c[3] * t181;
        const P t196 = c[4] * t183;
        const P t197 = t195 + t196;
        const P t198 = c[5] * t185;
        const P t199 = t197 - t198;
        const P t200 = c[1] * t180;
        const P t201 = c[2] * t182;
        const P t202 = t200 - t201;
        const P t203 = c[0] * t184;
        const P t204 = t202 - t203;
        const P t205 = t204 + t5;
        const P t206 = c[5] * t183;
        const P t207 = c[3] * t185;
        const P t208 = t206 + t207;
        const P t209 = c[4] * t181;
        const P t210 = t208 - t209;
        const P t211 = c[2] * t180;
        const P t212 = t5 - t211;
        const P t213 = c[0] * t182;
        const P t214 = t212 - t213;
        const P t215 = c[1] * t184;
        const P t216 = t214 + t215;
        const P t217 = c[5] * t181;
        const P t218 = c[3] * t183;
        const P t219 = t217 + t218;
        const P t220 = c[4] * t185;
        const P t221 = t219 + t220;
        const P x0 = io.pair(0);
        // complex block of 29, multiplier 2
        const P t222 = x0 + t50;
        const P t223 = c[32] * t50;
        const P t224 = x0 - t223;
        const P t225 = shuffled<1, 0>(t126);
        const P t226 = c[6] * t225;
        const P t227 = shuffled<1, 0>(t127);
        const P t228 = c[7] * t227;
        const P t229 = t226 + t228;
        const P t230 = P(-c[6], c[6]) * t227;
        const P t231 = P(c[7], -c[7]) * t225;
        const P t232 = t230 + t231;
        const P t233 = c[8] * t216;
        const P t234 = c[9] * t221;
        const P t235 = t233 + t234;
        const P t236 = c[9] * t216;
        const P t237 = c[8] * t221;
        const P t238 = t236 - t237;
        const P t239 = shuffled<1, 0>(t176);
        const P t240 = c[10] * t239;
        const P t241 = shuffled<1, 0>(t177);
        const P t242 = c[11] * t241;
        const P t243 = t240 + t242;
        const P t244 = P(-c[10], c[10]) * t241;
        const P t245 = P(c[11], -c[11]) * t239;
        const P t246 = t244 + t245;
        const P t247 = c[12] * t56;
        const P t248 = c[13] * t61;
        const P t249 = t247 + t248;
        const P t250 = c[12] * t61;
        const P t251 = c[13] * t56;
        const P t252 = t250 - t251;
        const P t253 = shuffled<1, 0>(t151);
        const P t254 = P(-c[14], c[14]) * t253;
        const P t255 = shuffled<1, 0>(t150);
        const P t256 = P(c[15], -c[15]) * t255;
        const P t257 = t254 + t256;
        const P t258 = c[15] * t253;
        const P t259 = c[14] * t255;
        const P t260 = t258 + t259;
        const P t261 = c[16] * t205;
        const P t262 = c[17] * t210;
        const P t263 = t261 - t262;
        const P t264 = c[16] * t210;
        const P t265 = c[17] * t205;
        const P t266 = t264 + t265;
        const P t267 = shuffled<1, 0>(t100);
        const P t268 = c[18] * t267;
        const P t269 = shuffled<1, 0>(t101);
        const P t270 = c[19] * t269;
        const P t271 = t268 + t270;
        const P t272 = P(-c[18], c[18]) * t269;
        const P t273 = P(c[19], -c[19]) * t267;
        const P t274 = t272 + t273;
        const P t275 = c[20] * t67;
        const P t276 = c[21] * t72;
        const P t277 = t275 - t276;
        const P t278 = c[20] * t72;
        const P t279 = c[21] * t67;
        const P t280 = t278 + t279;
        const P t281 = shuffled<1, 0>(t152);
        const P t282 = c[22] * t281;
        const P t283 = shuffled<1, 0>(t153);
        const P t284 = c[23] * t283;
        const P t285 = t282 + t284;
        const P t286 = P(-c[23], c[23]) * t281;
        const P t287 = P(c[22], -c[22]) * t283;
        const P t288 = t286 + t287;
        const P t289 = c[24] * t194;
        const P t290 = c[25] * t199;
        const P t291 = t289 + t290;
        const P t292 = c[24] * t199;
        const P t293 = c[25] * t194;
        const P t294 = t292 - t293;
        const P t295 = shuffled<1, 0>(t178);
        const P t296 = c[26] * t295;
        const P t297 = shuffled<1, 0>(t179);
        const P t298 = c[27] * t297;
        const P t299 = t296 + t298;
        const P t300 = P(-c[26], c[26]) * t297;
        const P t301 = P(c[27], -c[27]) * t295;
        const P t302 = t300 + t301;
        const P t303 = c[28] * t78;
        const P t304 = c[29] * t83;
        const P t305 = t303 + t304;
        const P t306 = c[28] * t83;
        const P t307 = c[29] * t78;
        const P t308 = t306 - t307;
        const P t309 = shuffled<1, 0>(t124);
        const P t310 = c[30] * t309;
        const P t311 = shuffled<1, 0>(t125);
        const P t312 = c[31] * t311;
        const P t313 = t310 + t312;
        const P t314 = P(-c[30], c[30]) * t311;
        const P t315 = P(c[31], -c[31]) * t309;
        const P t316 = t314 + t315;
        const P t317 = c[33] * t188;
        // spectrum block of 2
        const P t318 = t224 - t317;
        const P t319 = t224 + t317;
        const P t320 = flipped<1, 0>(t271);
        // spectrum block of 2
        const P t321 = t318 + t320;
        const P t322 = t318 - t320;
        // spectrum block of 2
        const P t323 = t319 + t274;
        const P t324 = t319 - t274;
        // complex block of 2
        const P t325 = t252 - t294;
        const P t326 = t249 - t291;
        const P t327 = t252 + t294;
        const P t328 = t249 + t291;
        // complex block of 2
        const P t329 = t302 - t246;
        const P t330 = t299 + t243;
        const P t331 = t302 + t246;
        const P t332 = shuffled<0, 3>(t243, t299);
        const P t333 = shuffled<0, 3>(t299, t243);
        const P t334 = t332 - t333;
        // complex block of 2
        const P t335 = t325 + t329;
        const P t336 = flipped<1, 0>(t330);
        const P t337 = t326 + t336;
        const P t338 = t325 - t329;
        const P t339 = t326 - t336;
        // complex block of 2
        const P t340 = t327 - t334;
        const P t341 = t328 + t331;
        const P t342 = t327 + t334;
        const P t343 = t328 - t331;
        // complex block of 2
        const P t344 = t280 + t266;
        const P t345 = t277 + t263;
        const P t346 = t280 - t266;
        const P t347 = t277 - t263;
        // complex block of 2
        const P t348 = t232 - t316;
        const P t349 = t313 + t229;
        const P t350 = t316 + t232;
        const P t351 = shuffled<0, 3>(t313, t229);
        const P t352 = shuffled<0, 3>(t229, t313);
        const P t353 = t351 - t352;
        // complex block of 2
        const P t354 = t344 + t348;
        const P t355 = flipped<0, 1>(t349);
        const P t356 = t345 + t355;
        const P t357 = t344 - t348;
        const P t358 = t345 - t355;
        // complex block of 2
        const P t359 = t346 - t353;
        const P t360 = t347 - t350;
        const P t361 = t346 + t353;
        const P t362 = t347 + t350;
        // complex block of 2
        const P t363 = t308 - t238;
        const P t364 = t305 + t235;
        const P t365 = t308 + t238;
        const P t366 = t305 - t235;
        const P t367 = flipped<0, 1>(t288);
        // complex block of 2
        const P t368 = t260 + t367;
        const P t369 = flipped<1, 0>(t285);
        const P t370 = t369 + t257;
        const P t371 = t260 - t367;
        const P t372 = flipped<0, 1>(t257);
        const P t373 = t285 + t372;
        const P t374 = flipped<1, 0>(t368);
        // complex block of 2
        const P t375 = t363 + t374;
        const P t376 = t364 + t370;
        const P t377 = t363 - t374;
        const P t378 = t364 - t370;
        const P t379 = flipped<0, 1>(t373);
        // complex block of 2
        const P t380 = t365 + t379;
        const P t381 = flipped<0, 1>(t371);
        const P t382 = t366 + t381;
        const P t383 = t365 - t379;
        const P t384 = t366 - t381;
        // spectrum block of 7, multiplier 4
        const P t385 = t337 + t356;
        const P t386 = t385 + t376;
        const P t387 = t386 + t321;
        const P t388 = c[1] * t337;
        const P t389 = c[2] * t356;
        const P t390 = t388 - t389;
        const P t391 = c[0] * t376;
        const P t392 = t390 - t391;
        const P t393 = t392 + t321;
        const P t394 = c[4] * t335;
        const P t395 = c[5] * t354;
        const P t396 = t394 + t395;
        const P t397 = c[3] * t375;
        const P t398 = t396 + t397;
        const P t399 = t393 - t398;
        const P t400 = t393 + t398;
        const P t401 = c[2] * t337;
        const P t402 = t321 - t401;
        const P t403 = c[0] * t356;
        const P t404 = t402 - t403;
        const P t405 = c[1] * t376;
        const P t406 = t404 + t405;
        const P t407 = c[5] * t335;
        const P t408 = c[3] * t354;
        const P t409 = t407 - t408;
        const P t410 = c[4] * t375;
        const P t411 = t409 - t410;
        const P t412 = t406 - t411;
        const P t413 = t406 + t411;
        const P t414 = c[0] * t337;
        const P t415 = t321 - t414;
        const P t416 = c[1] * t356;
        const P t417 = t415 + t416;
        const P t418 = c[2] * t376;
        const P t419 = t417 - t418;
        const P t420 = c[3] * t335;
        const P t421 = c[4] * t354;
        const P t422 = t420 - t421;
        const P t423 = c[5] * t375;
        const P t424 = t422 + t423;
        const P t425 = t419 - t424;
        const P t426 = t419 + t424;
        // spectrum block of 7, multiplier 4
        const P t427 = t341 + t360;
        const P t428 = t427 + t382;
        const P t429 = t428 + t323;
        const P t430 = c[1] * t341;
        const P t431 = c[2] * t360;
        const P t432 = t430 - t431;
        const P t433 = c[0] * t382;
        const P t434 = t432 - t433;
        const P t435 = t434 + t323;
        const P t436 = c[4] * t340;
        const P t437 = c[5] * t359;
        const P t438 = t436 + t437;
        const P t439 = c[3] * t380;
        const P t440 = t438 + t439;
        const P t441 = t435 - t440;
        const P t442 = t435 + t440;
        const P t443 = c[2] * t341;
        const P t444 = t323 - t443;
        const P t445 = c[0] * t360;
        const P t446 = t444 - t445;
        const P t447 = c[1] * t382;
        const P t448 = t446 + t447;
        const P t449 = c[5] * t340;
        const P t450 = c[3] * t359;
        const P t451 = t449 - t450;
        const P t452 = c[4] * t380;
        const P t453 = t451 - t452;
        const P t454 = t448 - t453;
        const P t455 = t448 + t453;
        const P t456 = c[0] * t341;
        const P t457 = t323 - t456;
        const P t458 = c[1] * t360;
        const P t459 = t457 + t458;
        const P t460 = c[2] * t382;
        const P t461 = t459 - t460;
        const P t462 = c[3] * t340;
        const P t463 = c[4] * t359;
        const P t464 = t462 - t463;
        const P t465 = c[5] * t380;
        const P t466 = t464 + t465;
        const P t467 = t461 - t466;
        const P t468 = t461 + t466;
        // spectrum block of 7, multiplier 4
        const P t469 = t339 + t358;
        const P t470 = t469 + t378;
        const P t471 = t470 + t322;
        const P t472 = c[1] * t339;
        const P t473 = c[2] * t358;
        const P t474 = t472 - t473;
        const P t475 = c[0] * t378;
        const P t476 = t474 - t475;
        const P t477 = t476 + t322;
        const P t478 = c[4] * t338;
        const P t479 = c[5] * t357;
        const P t480 = t478 + t479;
        const P t481 = c[3] * t377;
        const P t482 = t480 + t481;
        const P t483 = t477 - t482;
        const P t484 = t477 + t482;
        const P t485 = c[2] * t339;
        const P t486 = t322 - t485;
        const P t487 = c[0] * t358;
        const P t488 = t486 - t487;
        const P t489 = c[1] * t378;
        const P t490 = t488 + t489;
        const P t491 = c[5] * t338;
        const P t492 = c[3] * t357;
        const P t493 = t491 - t492;
        const P t494 = c[4] * t377;
        const P t495 = t493 - t494;
        const P t496 = t490 - t495;
        const P t497 = t490 + t495;
        const P t498 = c[0] * t339;
        const P t499 = t322 - t498;
        const P t500 = c[1] * t358;
        const P t501 = t499 + t500;
        const P t502 = c[2] * t378;
        const P t503 = t501 - t502;
        const P t504 = c[3] * t338;
        const P t505 = c[4] * t357;
        const P t506 = t504 - t505;
        const P t507 = c[5] * t377;
        const P t508 = t506 + t507;
        const P t509 = t503 - t508;
        const P t510 = t503 + t508;
        // spectrum block of 7, multiplier 4
        const P t511 = t343 + t362;
        const P t512 = t511 + t384;
        const P t513 = t512 + t324;
        const P t514 = c[1] * t343;
        const P t515 = c[2] * t362;
        const P t516 = t514 - t515;
        const P t517 = c[0] * t384;
        const P t518 = t516 - t517;
        const P t519 = t518 + t324;
        const P t520 = c[4] * t342;
        const P t521 = c[5] * t361;
        const P t522 = t520 + t521;
        const P t523 = c[3] * t383;
        const P t524 = t522 + t523;
        const P t525 = t519 - t524;
        const P t526 = t519 + t524;
        const P t527 = c[2] * t343;
        const P t528 = t324 - t527;
        const P t529 = c[0] * t362;
        const P t530 = t528 - t529;
        const P t531 = c[1] * t384;
        const P t532 = t530 + t531;
        const P t533 = c[5] * t342;
        const P t534 = c[3] * t361;
        const P t535 = t533 - t534;
        const P t536 = c[4] * t383;
        const P t537 = t535 - t536;
        const P t538 = t532 - t537;
        const P t539 = t532 + t537;
        const P t540 = c[0] * t343;
        const P t541 = t324 - t540;
        const P t542 = c[1] * t362;
        const P t543 = t541 + t542;
        const P t544 = c[2] * t384;
        const P t545 = t543 - t544;
        const P t546 = c[3] * t342;
        const P t547 = c[4] * t361;
        const P t548 = t546 - t547;
        const P t549 = c[5] * t383;
        const P t550 = t548 + t549;
        const P t551 = t545 - t550;
        const P t552 = t545 + t550;
        const P x31 = io.pair(31);
        const P x27 = io.pair(27);
        // real block of 2
        const P t553 = x31 + x27;
        const P t554 = x31 - x27;
        const P x53 = io.pair(53);
        const P x5 = io.pair(5);
        // real block of 2
        const P t555 = x53 + x5;
        const P t556 = x53 - x5;
        // real block of 2
        const P t557 = t553 + t555;
        const P t558 = t553 - t555;
        const P x3 = io.pair(3);
        const P x55 = io.pair(55);
        // real block of 2
        const P t559 = x3 + x55;
        const P t560 = x3 - x55;
        const P x7 = io.pair(7);
        const P x51 = io.pair(51);
        // real block of 2
        const P t561 = x7 + x51;
        const P t562 = x7 - x51;
        // real block of 2
        const P t563 = t559 + t561;
        const P t564 = t559 - t561;
        const P x19 = io.pair(19);
        const P x39 = io.pair(39);
        // real block of 2
        const P t565 = x19 + x39;
        const P t566 = x19 - x39;
        const P x25 = io.pair(25);
        const P x33 = io.pair(33);
        // real block of 2
        const P t567 = x25 + x33;
        const P t568 = x25 - x33;
        // real block of 2
        const P t569 = t565 + t567;
        const P t570 = t565 - t567;
        const P x43 = io.pair(43);
        const P x15 = io.pair(15);
        // real block of 2
        const P t571 = x43 + x15;
        const P t572 = x43 - x15;
        const P x23 = io.pair(23);
        const P x35 = io.pair(35);
        // real block of 2
        const P t573 = x23 + x35;
        const P t574 = x23 - x35;
        // real block of 2
        const P t575 = t571 + t573;
        const P t576 = t571 - t573;
        const P x21 = io.pair(21);
        const P x37 = io.pair(37);
        // real block of 2
        const P t577 = x21 + x37;
        const P t578 = x21 - x37;
        const P x49 = io.pair(49);
        const P x9 = io.pair(9);
        // real block of 2
        const P t579 = x49 + x9;
        const P t580 = x49 - x9;
        // real block of 2
        const P t581 = t577 + t579;
        const P t582 = t577 - t579;
        const P x17 = io.pair(17);
        const P x41 = io.pair(41);
        // real block of 2
        const P t583 = x17 + x41;
        const P t584 = x17 - x41;
        const P x1 = io.pair(1);
        const P x57 = io.pair(57);
        // real block of 2
        const P t585 = x1 + x57;
        const P t586 = x1 - x57;
        // real block of 2
        const P t587 = t583 + t585;
        const P t588 = t583 - t585;
        const P x11 = io.pair(11);
        const P x47 = io.pair(47);
        // real block of 2
        const P t589 = x11 + x47;
        const P t590 = x11 - x47;
        const P x45 = io.pair(45);
        const P x13 = io.pair(13);
        // real block of 2
        const P t591 = x45 + x13;
        const P t592 = x45 - x13;
        // real block of 2
        const P t593 = t589 + t591;
        const P t594 = t589 - t591;
        // real block of 7, multiplier 4
        const P t595 = t563 + t593;
        const P t596 = t563 - t593;
        const P t597 = t587 + t569;
        const P t598 = t587 - t569;
        const P t599 = t581 + t575;
        const P t600 = t581 - t575;
        const P t601 = t595 + t597;
        const P t602 = t601 + t599;
        const P t603 = t602 + t557;
        const P t604 = c[0] * t595;
        const P t605 = t557 - t604;
        const P t606 = c[1] * t597;
        const P t607 = t605 + t606;
        const P t608 = c[2] * t599;
        const P t609 = t607 - t608;
        const P t610 = c[3] * t596;
        const P t611 = c[4] * t598;
        const P t612 = t610 + t611;
        const P t613 = c[5] * t600;
        const P t614 = t612 - t613;
        const P t615 = c[1] * t595;
        const P t616 = c[2] * t597;
        const P t617 = t615 - t616;
        const P t618 = c[0] * t599;
        const P t619 = t617 - t618;
        const P t620 = t619 + t557;
        const P t621 = c[5] * t598;
        const P t622 = c[3] * t600;
        const P t623 = t621 + t622;
        const P t624 = c[4] * t596;
        const P t625 = t623 - t624;
        const P t626 = c[2] * t595;
        const P t627 = t557 - t626;
        const P t628 = c[0] * t597;
        const P t629 = t627 - t628;
        const P t630 = c[1] * t599;
        const P t631 = t629 + t630;
        const P t632 = c[5] * t596;
        const P t633 = c[3] * t598;
        const P t634 = t632 + t633;
        const P t635 = c[4] * t600;
        const P t636 = t634 + t635;
        // complex block of 7, multiplier 4
        const P t637 = t560 + t590;
        const P t638 = t562 + t592;
        const P t639 = t560 - t590;
        const P t640 = t562 - t592;
        const P t641 = t584 + t566;
        const P t642 = t586 + t568;
        const P t643 = t584 - t566;
        const P t644 = t586 - t568;
        const P t645 = t578 + t572;
        const P t646 = t580 + t574;
        const P t647 = t578 - t572;
        const P t648 = t580 - t574;
        const P t649 = t637 + t641;
        const P t650 = t649 + t645;
        const P t651 = t638 + t642;
        const P t652 = t651 + t646;
        const P t653 = t650 + t554;
        const P t654 = t652 + t556;
        const P t655 = c[1] * t637;
        const P t656 = c[2] * t641;
        const P t657 = t655 - t656;
        const P t658 = c[0] * t645;
        const P t659 = t657 - t658;
        const P t660 = t659 + t554;
        const P t661 = c[1] * t638;
        const P t662 = c[2] * t642;
        const P t663 = t661 - t662;
        const P t664 = c[0] * t646;
        const P t665 = t663 - t664;
        const P t666 = t665 + t556;
        const P t667 = c[4] * t639;
        const P t668 = c[5] * t643;
        const P t669 = t667 - t668;
        const P t670 = c[3] * t647;
        const P t671 = t669 - t670;
        const P t672 = c[4] * t640;
        const P t673 = c[5] * t644;
        const P t674 = t672 - t673;
        const P t675 = c[3] * t648;
        const P t676 = t674 - t675;
        const P t677 = t660 + t676;
        const P t678 = t666 - t671;
        const P t679 = t660 - t676;
        const P t680 = t666 + t671;
        const P t681 = c[2] * t637;
        const P t682 = t554 - t681;
        const P t683 = c[0] * t641;
        const P t684 = t682 - t683;
        const P t685 = c[1] * t645;
        const P t686 = t684 + t685;
        const P t687 = c[2] * t638;
        const P t688 = t556 - t687;
        const P t689 = c[0] * t642;
        const P t690 = t688 - t689;
        const P t691 = c[1] * t646;
        const P t692 = t690 + t691;
        const P t693 = c[5] * t639;
        const P t694 = c[3] * t643;
        const P t695 = t693 + t694;
        const P t696 = c[4] * t647;
        const P t697 = t695 + t696;
        const P t698 = c[5] * t640;
        const P t699 = c[3] * t644;
        const P t700 = t698 + t699;
        const P t701 = c[4] * t648;
        const P t702 = t700 + t701;
        const P t703 = t686 + t702;
        const P t704 = t692 - t697;
        const P t705 = t686 - t702;
        const P t706 = t692 + t697;
        const P t707 = c[0] * t637;
        const P t708 = t554 - t707;
        const P t709 = c[1] * t641;
        const P t710 = t708 + t709;
        const P t711 = c[2] * t645;
        const P t712 = t710 - t711;
        const P t713 = c[0] * t638;
        const P t714 = t556 - t713;
        const P t715 = c[1] * t642;
        const P t716 = t714 + t715;
        const P t717 = c[2] * t646;
        const P t718 = t716 - t717;
        const P t719 = c[3] * t639;
        const P t720 = c[4] * t643;
        const P t721 = t719 + t720;
        const P t722 = c[5] * t647;
        const P t723 = t721 - t722;
        const P t724 = c[3] * t640;
        const P t725 = c[4] * t644;
        const P t726 = t724 + t725;
        const P t727 = c[5] * t648;
        const P t728 = t726 - t727;
        const P t729 = t712 + t728;
        const P t730 = t718 - t723;
        const P t731 = t712 - t728;
        const P t732 = t718 + t723;
        // real block of 7, multiplier 4
        const P t733 = t564 + t594;
        const P t734 = t564 - t594;
        const P t735 = t588 + t570;
        const P t736 = t588 - t570;
        const P t737 = t582 + t576;
        const P t738 = t582 - t576;
        const P t739 = t733 + t735;
        const P t740 = t739 + t737;
        const P t741 = t740 + t558;
        const P t742 = c[0] * t733;
        const P t743 = t558 - t742;
        const P t744 = c[1] * t735;
        const P t745 = t743 + t744;
        const P t746 = c[2] * t737;
        const P t747 = t745 - t746;
        const P t748 = c[3] * t734;
        const P t749 = c[4] * t736;
        const P t750 = t748 + t749;
        const P t751 = c[5] * t738;
        const P t752 = t750 - t751;
        const P t753 = c[1] * t733;
        const P t754 = c[2] * t735;
        const P t755 = t753 - t754;
        const P t756 = c[0] * t737;
        const P t757 = t755 - t756;
        const P t758 = t757 + t558;
        const P t759 = c[5] * t736;
        const P t760 = c[3] * t738;
        const P t761 = t759 + t760;
        const P t762 = c[4] * t734;
        const P t763 = t761 - t762;
        const P t764 = c[2] * t733;
        const P t765 = t558 - t764;
        const P t766 = c[0] * t735;
        const P t767 = t765 - t766;
        const P t768 = c[1] * t737;
        const P t769 = t767 + t768;
        const P t770 = c[5] * t734;
        const P t771 = c[3] * t736;
        const P t772 = t770 + t771;
        const P t773 = c[4] * t738;
        const P t774 = t772 + t773;
        const P x29 = io.pair(29);
        // complex block of 29, multiplier 2
        const P t775 = x29 + t603;
        const P t776 = c[32] * t603;
        const P t777 = x29 - t776;
        const P t778 = shuffled<1, 0>(t679);
        const P t779 = c[6] * t778;
        const P t780 = shuffled<1, 0>(t680);
        const P t781 = c[7] * t780;
        const P t782 = t779 + t781;
        const P t783 = P(-c[6], c[6]) * t780;
        const P t784 = P(c[7], -c[7]) * t778;
        const P t785 = t783 + t784;
        const P t786 = c[8] * t769;
        const P t787 = c[9] * t774;
        const P t788 = t786 + t787;
        const P t789 = c[9] * t769;
        const P t790 = c[8] * t774;
        const P t791 = t789 - t790;
        const P t792 = shuffled<1, 0>(t729);
        const P t793 = c[10] * t792;
        const P t794 = shuffled<1, 0>(t730);
        const P t795 = c[11] * t794;
        const P t796 = t793 + t795;
        const P t797 = P(-c[10], c[10]) * t794;
        const P t798 = P(c[11], -c[11]) * t792;
        const P t799 = t797 + t798;
        const P t800 = c[12] * t609;
        const P t801 = c[13] * t614;
        const P t802 = t800 + t801;
        const P t803 = c[12] * t614;
        const P t804 = c[13] * t609;
        const P t805 = t803 - t804;
        const P t806 = shuffled<1, 0>(t704);
        const P t807 = P(-c[14], c[14]) * t806;
        const P t808 = shuffled<1, 0>(t703);
        const P t809 = P(c[15], -c[15]) * t808;
        const P t810 = t807 + t809;
        const P t811 = c[15] * t806;
        const P t812 = c[14] * t808;
        const P t813 = t811 + t812;
        const P t814 = c[16] * t758;
        const P t815 = c[17] * t763;
        const P t816 = t814 - t815;
        const P t817 = c[16] * t763;
        const P t818 = c[17] * t758;
        const P t819 = t817 + t818;
        const P t820 = shuffled<1, 0>(t653);
        const P t821 = c[18] * t820;
        const P t822 = shuffled<1, 0>(t654);
        const P t823 = c[19] * t822;
        const P t824 = t821 + t823;
        const P t825 = P(-c[18], c[18]) * t822;
        const P t826 = P(c[19], -c[19]) * t820;
        const P t827 = t825 + t826;
        const P t828 = c[20] * t620;
        const P t829 = c[21] * t625;
        const P t830 = t828 - t829;
        const P t831 = c[20] * t625;
        const P t832 = c[21] * t620;
        const P t833 = t831 + t832;
        const P t834 = shuffled<1, 0>(t705);
        const P t835 = c[22] * t834;
        const P t836 = shuffled<1, 0>(t706);
        const P t837 = c[23] * t836;
        const P t838 = t835 + t837;
        const P t839 = P(-c[23], c[23]) * t834;
        const P t840 = P(c[22], -c[22]) * t836;
        const P t841 = t839 + t840;
        const P t842 = c[24] * t747;
        const P t843 = c[25] * t752;
        const P t844 = t842 + t843;
        const P t845 = c[24] * t752;
        const P t846 = c[25] * t747;
        const P t847 = t845 - t846;
        const P t848 = shuffled<1, 0>(t731);
        const P t849 = c[26] * t848;
        const P t850 = shuffled<1, 0>(t732);
        const P t851 = c[27] * t850;
        const P t852 = t849 + t851;
        const P t853 = P(-c[26], c[26]) * t850;
        const P t854 = P(c[27], -c[27]) * t848;
        const P t855 = t853 + t854;
        const P t856 = c[28] * t631;
        const P t857 = c[29] * t636;
        const P t858 = t856 + t857;
        const P t859 = c[28] * t636;
        const P t860 = c[29] * t631;
        const P t861 = t859 - t860;
        const P t862 = shuffled<1, 0>(t677);
        const P t863 = c[30] * t862;
        const P t864 = shuffled<1, 0>(t678);
        const P t865 = c[31] * t864;
        const P t866 = t863 + t865;
        const P t867 = P(-c[30], c[30]) * t864;
        const P t868 = P(c[31], -c[31]) * t862;
        const P t869 = t867 + t868;
        const P t870 = c[33] * t741;
        // spectrum block of 2
        const P t871 = t777 - t870;
        const P t872 = t777 + t870;
        const P t873 = flipped<1, 0>(t824);
        // spectrum block of 2
        const P t874 = t871 + t873;
        const P t875 = t871 - t873;
        // spectrum block of 2
        const P t876 = t872 + t827;
        const P t877 = t872 - t827;
        // complex block of 2
        const P t878 = t805 - t847;
        const P t879 = t802 - t844;
        const P t880 = t805 + t847;
        const P t881 = t802 + t844;
        // complex block of 2
        const P t882 = t855 - t799;
        const P t883 = t852 + t796;
        const P t884 = t855 + t799;
        const P t885 = shuffled<0, 3>(t796, t852);
        const P t886 = shuffled<0, 3>(t852, t796);
        const P t887 = t885 - t886;
        // complex block of 2
        const P t888 = t878 + t882;
        const P t889 = flipped<1, 0>(t883);
        const P t890 = t879 + t889;
        const P t891 = t878 - t882;
        const P t892 = t879 - t889;
        // complex block of 2
        const P t893 = t880 - t887;
        const P t894 = t881 + t884;
        const P t895 = t880 + t887;
        const P t896 = t881 - t884;
        // complex block of 2
        const P t897 = t833 + t819;
        const P t898 = t830 + t816;
        const P t899 = t833 - t819;
        const P t900 = t830 - t816;
        // complex block of 2
        const P t901 = t785 - t869;
        const P t902 = t866 + t782;
        const P t903 = t869 + t785;
        const P t904 = shuffled<0, 3>(t866, t782);
        const P t905 = shuffled<0, 3>(t782, t866);
        const P t906 = t904 - t905;
        // complex block of 2
        const P t907 = t897 + t901;
        const P t908 = flipped<0, 1>(t902);
        const P t909 = t898 + t908;
        const P t910 = t897 - t901;
        const P t911 = t898 - t908;
        // complex block of 2
        const P t912 = t899 - t906;
        const P t913 = t900 - t903;
        const P t914 = t899 + t906;
        const P t915 = t900 + t903;
        // complex block of 2
        const P t916 = t861 - t791;
        const P t917 = t858 + t788;
        const P t918 = t861 + t791;
        const P t919 = t858 - t788;
        const P t920 = flipped<0, 1>(t841);
        // complex block of 2
        const P t921 = t813 + t920;
        const P t922 = flipped<1, 0>(t838);
        const P t923 = t922 + t810;
        const P t924 = t813 - t920;
        const P t925 = flipped<0, 1>(t810);
        const P t926 = t838 + t925;
        const P t927 = flipped<1, 0>(t921);
        // complex block of 2
        const P t928 = t916 + t927;
        const P t929 = t917 + t923;
        const P t930 = t916 - t927;
        const P t931 = t917 - t923;
        const P t932 = flipped<0, 1>(t926);
        // complex block of 2
        const P t933 = t918 + t932;
        const P t934 = flipped<0, 1>(t924);
        const P t935 = t919 + t934;
        const P t936 = t918 - t932;
        const P t937 = t919 - t934;
        // spectrum block of 7, multiplier 4
        const P t938 = t890 + t909;
        const P t939 = t938 + t929;
        const P t940 = t939 + t874;
        const P t941 = c[1] * t890;
        const P t942 = c[2] * t909;
        const P t943 = t941 - t942;
        const P t944 = c[0] * t929;
        const P t945 = t943 - t944;
        const P t946 = t945 + t874;
        const P t947 = c[4] * t888;
        const P t948 = c[5] * t907;
        const P t949 = t947 + t948;
        const P t950 = c[3] * t928;
        const P t951 = t949 + t950;
        const P t952 = t946 - t951;
        const P t953 = t946 + t951;
        const P t954 = c[2] * t890;
        const P t955 = t874 - t954;
        const P t956 = c[0] * t909;
        const P t957 = t955 - t956;
        const P t958 = c[1] * t929;
        const P t959 = t957 + t958;
        const P t960 = c[5] * t888;
        const P t961 = c[3] * t907;
        const P t962 = t960 - t961;
        const P t963 = c[4] * t928;
        const P t964 = t962 - t963;
        const P t965 = t959 - t964;
        const P t966 = t959 + t964;
        const P t967 = c[0] * t890;
        const P t968 = t874 - t967;
        const P t969 = c[1] * t909;
        const P t970 = t968 + t969;
        const P t971 = c[2] * t929;
        const P t972 = t970 - t971;
        const P t973 = c[3] * t888;
        const P t974 = c[4] * t907;
        const P t975 = t973 - t974;
        const P t976 = c[5] * t928;
        const P t977 = t975 + t976;
        const P t978 = t972 - t977;
        const P t979 = t972 + t977;
        // spectrum block of 7, multiplier 4
        const P t980 = t894 + t913;
        const P t981 = t980 + t935;
        const P t982 = t981 + t876;
        const P t983 = c[1] * t894;
        const P t984 = c[2] * t913;
        const P t985 = t983 - t984;
        const P t986 = c[0] * t935;
        const P t987 = t985 - t986;
        const P t988 = t987 + t876;
        const P t989 = c[4] * t893;
        const P t990 = c[5] * t912;
        const P t991 = t989 + t990;
        const P t992 = c[3] * t933;
        const P t993 = t991 + t992;
        const P t994 = t988 - t993;
        const P t995 = t988 + t993;
        const P t996 = c[2] * t894;
        const P t997 = t876 - t996;
        const P t998 = c[0] * t913;
        const P t999 = t997 - t998;
        const P t1000 = c[1] * t935;
        const P t1001 = t999 + t1000;
        const P t1002 = c[5] * t893;
        const P t1003 = c[3] * t912;
        const P t1004 = t1002 - t1003;
        const P t1005 = c[4] * t933;
        const P t1006 = t1004 - t1005;
        const P t1007 = t1001 - t1006;
        const P t1008 = t1001 + t1006;
        const P t1009 = c[0] * t894;
        const P t1010 = t876 - t1009;
        const P t1011 = c[1] * t913;
        const P t1012 = t1010 + t1011;
        const P t1013 = c[2] * t935;
        const P t1014 = t1012 - t1013;
        const P t1015 = c[3] * t893;
        const P t1016 = c[4] * t912;
        const P t1017 = t1015 - t1016;
        const P t1018 = c[5] * t933;
        const P t1019 = t1017 + t1018;
        const P t1020 = t1014 - t1019;
        const P t1021 = t1014 + t1019;
        // spectrum block of 7, multiplier 4
        const P t1022 = t892 + t911;
        const P t1023 = t1022 + t931;
        const P t1024 = t1023 + t875;
        const P t1025 = c[1] * t892;
        const P t1026 = c[2] * t911;
        const P t1027 = t1025 - t1026;
        const P t1028 = c[0] * t931;
        const P t1029 = t1027 - t1028;
        const P t1030 = t1029 + t875;
        const P t1031 = c[4] * t891;
        const P t1032 = c[5] * t910;
        const P t1033 = t1031 + t1032;
        const P t1034 = c[3] * t930;
        const P t1035 = t1033 + t1034;
        const P t1036 = t1030 - t1035;
        const P t1037 = t1030 + t1035;
        const P t1038 = c[2] * t892;
        const P t1039 = t875 - t1038;
        const P t1040 = c[0] * t911;
        const P t1041 = t1039 - t1040;
        const P t1042 = c[1] * t931;
        const P t1043 = t1041 + t1042;
        const P t1044 = c[5] * t891;
        const P t1045 = c[3] * t910;
        const P t1046 = t1044 - t1045;
        const P t1047 = c[4] * t930;
        const P t1048 = t1046 - t1047;
        const P t1049 = t1043 - t1048;
        const P t1050 = t1043 + t1048;
        const P t1051 = c[0] * t892;
        const P t1052 = t875 - t1051;
        const P t1053 = c[1] * t911;
        const P t1054 = t1052 + t1053;
        const P t1055 = c[2] * t931;
        const P t1056 = t1054 - t1055;
        const P t1057 = c[3] * t891;
        const P t1058 = c[4] * t910;
        const P t1059 = t1057 - t1058;
        const P t1060 = c[5] * t930;
        const P t1061 = t1059 + t1060;
        const P t1062 = t1056 - t1061;
        const P t1063 = t1056 + t1061;
        // spectrum block of 7, multiplier 4
        const P t1064 = t896 + t915;
        const P t1065 = t1064 + t937;
        const P t1066 = t1065 + t877;
        const P t1067 = c[1] * t896;
        const P t1068 = c[2] * t915;
        const P t1069 = t1067 - t1068;
        const P t1070 = c[0] * t937;
        const P t1071 = t1069 - t1070;
        const P t1072 = t1071 + t877;
        const P t1073 = c[4] * t895;
        const P t1074 = c[5] * t914;
        const P t1075 = t1073 + t1074;
        const P t1076 = c[3] * t936;
        const P t1077 = t1075 + t1076;
        const P t1078 = t1072 - t1077;
        const P t1079 = t1072 + t1077;
        const P t1080 = c[2] * t896;
        const P t1081 = t877 - t1080;
        const P t1082 = c[0] * t915;
        const P t1083 = t1081 - t1082;
        const P t1084 = c[1] * t937;
        const P t1085 = t1083 + t1084;
        const P t1086 = c[5] * t895;
        const P t1087 = c[3] * t914;
        const P t1088 = t1086 - t1087;
        const P t1089 = c[4] * t936;
        const P t1090 = t1088 - t1089;
        const P t1091 = t1085 - t1090;
        const P t1092 = t1085 + t1090;
        const P t1093 = c[0] * t896;
        const P t1094 = t877 - t1093;
        const P t1095 = c[1] * t915;
        const P t1096 = t1094 + t1095;
        const P t1097 = c[2] * t937;
        const P t1098 = t1096 - t1097;
        const P t1099 = c[3] * t895;
        const P t1100 = c[4] * t914;
        const P t1101 = t1099 - t1100;
        const P t1102 = c[5] * t936;
        const P t1103 = t1101 + t1102;
        const P t1104 = t1098 - t1103;
        const P t1105 = t1098 + t1103;
        // complex block of 2
        const P t1106 = t222 + t775;
        io.pair(0, t1106);
        const P t1107 = t222 - t775;
        io.pair(29, t1107);
        // complex block of 2
        const P t1108 = t387 + t940;
        io.pair(2, t1108);
        const P t1109 = t387 - t940;
        io.pair(31, t1109);
        // complex block of 2
        const P t1110 = t442 + t995;
        io.pair(4, t1110);
        const P t1111 = t442 - t995;
        io.pair(33, t1111);
        // complex block of 2
        const P t1112 = t454 + t1007;
        io.pair(6, t1112);
        const P t1113 = t454 - t1007;
        io.pair(35, t1113);
        // complex block of 2
        const P t1114 = t497 + t1050;
        io.pair(8, t1114);
        const P t1115 = t497 - t1050;
        io.pair(37, t1115);
        // complex block of 2
        const P t1116 = t484 + t1037;
        io.pair(10, t1116);
        const P t1117 = t484 - t1037;
        io.pair(39, t1117);
        // complex block of 2
        const P t1118 = t483 + t1036;
        io.pair(12, t1118);
        const P t1119 = t483 - t1036;
        io.pair(41, t1119);
        // complex block of 2
        const P t1120 = t412 + t965;
        io.pair(14, t1120);
        const P t1121 = t412 - t965;
        io.pair(43, t1121);
        // complex block of 2
        const P t1122 = t552 + t1105;
        io.pair(16, t1122);
        const P t1123 = t552 - t1105;
        io.pair(45, t1123);
        // complex block of 2
        const P t1124 = t510 + t1063;
        io.pair(18, t1124);
        const P t1125 = t510 - t1063;
        io.pair(47, t1125);
        // complex block of 2
        const P t1126 = t539 + t1092;
        io.pair(20, t1126);
        const P t1127 = t539 - t1092;
        io.pair(49, t1127);
        // complex block of 2
        const P t1128 = t467 + t1020;
        io.pair(22, t1128);
        const P t1129 = t467 - t1020;
        io.pair(51, t1129);
        // complex block of 2
        const P t1130 = t513 + t1066;
        io.pair(24, t1130);
        const P t1131 = t513 - t1066;
        io.pair(53, t1131);
        // complex block of 2
        const P t1132 = t509 + t1062;
        io.pair(26, t1132);
        const P t1133 = t509 - t1062;
        io.pair(55, t1133);
        // complex block of 2
        const P t1134 = t441 + t994;
        io.pair(28, t1134);
        const P t1135 = t441 - t994;
        io.pair(57, t1135);
        // complex block of 2
        const P t1136 = t525 + t1078;
        io.pair(30, t1136);
        const P t1137 = t525 - t1078;
        io.pair(1, t1137);
        // complex block of 2
        const P t1138 = t425 + t978;
        io.pair(32, t1138);
        const P t1139 = t425 - t978;
        io.pair(3, t1139);
        // complex block of 2
        const P t1140 = t429 + t982;
        io.pair(34, t1140);
        const P t1141 = t429 - t982;
        io.pair(5, t1141);
        // complex block of 2
        const P t1142 = t551 + t1104;
        io.pair(36, t1142);
        const P t1143 = t551 - t1104;
        io.pair(7, t1143);
        // complex block of 2
        const P t1144 = t455 + t1008;
        io.pair(38, t1144);
        const P t1145 = t455 - t1008;
        io.pair(9, t1145);
        // complex block of 2
        const P t1146 = t426 + t979;
        io.pair(40, t1146);
        const P t1147 = t426 - t979;
        io.pair(11, t1147);
        // complex block of 2
        const P t1148 = t468 + t1021;
        io.pair(42, t1148);
        const P t1149 = t468 - t1021;
        io.pair(13, t1149);
        // complex block of 2
        const P t1150 = t496 + t1049;
        io.pair(44, t1150);
        const P t1151 = t496 - t1049;
        io.pair(15, t1151);
        // complex block of 2
        const P t1152 = t399 + t952;
        io.pair(46, t1152);
        const P t1153 = t399 - t952;
        io.pair(17, t1153);
        // complex block of 2
        const P t1154 = t400 + t953;
        io.pair(48, t1154);
        const P t1155 = t400 - t953;
        io.pair(19, t1155);
        // complex block of 2
        const P t1156 = t413 + t966;
        io.pair(50, t1156);
        const P t1157 = t413 - t966;
        io.pair(21, t1157);
        // complex block of 2
        const P t1158 = t538 + t1091;
        io.pair(52, t1158);
        const P t1159 = t538 - t1091;
        io.pair(23, t1159);
        // complex block of 2
        const P t1160 = t526 + t1079;
        io.pair(54, t1160);
        const P t1161 = t526 - t1079;
        io.pair(25, t1161);
        // complex block of 2
        const P t1162 = t471 + t1024;
        io.pair(56, t1162);
        const P t1163 = t471 - t1024;
        io.pair(27, t1163);
    }
};

}  // namespace zulg
