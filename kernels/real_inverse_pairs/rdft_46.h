// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 46.
// Inverse DFT to 46 real points, prime-factor 23, 2; two lanes to a register.
// 178 sums, 130 differences, 264 products of registers, which do the 1188 steps of the graph, those with
// `scale` included; 64 shuffles, 16 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<46> {
    static constexpr int steps = 1188;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.8412535328311812,  // c[1]: cos 2 pi 1/11
        0.41541501300188644,  // c[2]: cos 2 pi 9/11
        0.14231483827328514,  // c[3]: -cos 2 pi 3/11
        0.6548607339452851,  // c[4]: -cos 2 pi 4/11
        0.9594929736144974,  // c[5]: -cos 2 pi 6/11
        0.9096319953545183,  // c[6]: -sin 2 pi 9/11
        0.28173255684142967,  // c[7]: -sin 2 pi 6/11
        0.5406408174555976,  // c[8]: sin 2 pi 1/11
        0.9898214418809327,  // c[9]: sin 2 pi 3/11
        0.7557495743542583,  // c[10]: sin 2 pi 4/11
        0.17418154463549565,  // c[11]: P[1] of 23
        0.39967916400094217,  // c[12]: -Q[1] of 23
        0.4130101145562366,  // c[13]: P[2] of 23
        0.1396613400420585,  // c[14]: Q[2] of 23
        0.2936565344532715,  // c[15]: -P[3] of 23
        0.3222553093449257,  // c[16]: -Q[3] of 23
        0.42985679697172136,  // c[17]: -Q[4] of 23
        0.07284077652875139,  // c[18]: -P[4] of 23
        0.4166015292602189,  // c[19]: P[5] of 23
        0.12855275355334153,  // c[20]: -Q[5] of 23
        0.3397700700904962,  // c[21]: -Q[6] of 23
        0.2732012886111602,  // c[22]: -P[6] of 23
        0.3941449686576057,  // c[23]: Q[7] of 23
        0.1863662746045921,  // c[24]: -P[7] of 23
        0.4322477411542684,  // c[25]: P[8] of 23
        0.05696081894716527,  // c[26]: Q[8] of 23
        0.15475065017493012,  // c[27]: Q[9] of 23
        0.4075964682115579,  // c[28]: P[9] of 23
        0.4006581594304406,  // c[29]: P[10] of 23
        0.1719176660785936,  // c[30]: Q[10] of 23
        0.045454545454545456,  // c[31]: 1/22
        0.21799234196875997,  // c[32]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x10 = io.pair(10);
        // doubled bins
        const P t0 = c[0] * x10;
        const P x13 = io.pair(13);
        const P t1 = c[0] * x13;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x18 = io.pair(18);
        const P t3 = c[0] * x18;
        const P x5 = io.pair(5);
        const P t4 = c[0] * x5;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 11
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x22 = io.pair(22);
        // doubled bins
        const P t8 = c[0] * x22;
        const P x1 = io.pair(1);
        const P t9 = c[0] * x1;
        const P t10 = shuffled<0, 2>(t8, t9);
        const P x4 = io.pair(4);
        const P t11 = c[0] * x4;
        const P x19 = io.pair(19);
        const P t12 = c[0] * x19;
        const P t13 = shuffled<0, 2>(t11, t12);
        // real block of 11
        const P t14 = t10 + t13;
        const P t15 = t10 - t13;
        const P x20 = io.pair(20);
        // doubled bins
        const P t16 = c[0] * x20;
        const P x3 = io.pair(3);
        const P t17 = c[0] * x3;
        const P t18 = shuffled<0, 2>(t16, t17);
        const P x14 = io.pair(14);
        const P t19 = c[0] * x14;
        const P x9 = io.pair(9);
        const P t20 = c[0] * x9;
        const P t21 = shuffled<0, 2>(t19, t20);
        // real block of 11
        const P t22 = t18 + t21;
        const P t23 = t18 - t21;
        const P x8 = io.pair(8);
        // doubled bins
        const P t24 = c[0] * x8;
        const P x15 = io.pair(15);
        const P t25 = c[0] * x15;
        const P t26 = shuffled<0, 2>(t24, t25);
        const P x12 = io.pair(12);
        const P t27 = c[0] * x12;
        const P x11 = io.pair(11);
        const P t28 = c[0] * x11;
        const P t29 = shuffled<0, 2>(t27, t28);
        // real block of 11
        const P t30 = t26 + t29;
        const P t31 = t26 - t29;
        const P x16 = io.pair(16);
        // doubled bins
        const P t32 = c[0] * x16;
        const P x7 = io.pair(7);
        const P t33 = c[0] * x7;
        const P t34 = shuffled<0, 2>(t32, t33);
        const P x6 = io.pair(6);
        const P t35 = c[0] * x6;
        const P x17 = io.pair(17);
        const P t36 = c[0] * x17;
        const P t37 = shuffled<0, 2>(t35, t36);
        // real block of 11
        const P t38 = t34 + t37;
        const P t39 = t34 - t37;
        const P t40 = t6 + t14;
        const P t41 = t40 + t22;
        const P t42 = t41 + t30;
        const P t43 = t42 + t38;
        const P x2 = io.pair(2);
        // doubled bins
        const P t44 = c[0] * x2;
        const P x21 = io.pair(21);
        const P t45 = c[0] * x21;
        const P t46 = shuffled<0, 2>(t44, t45);
        // real block of 11
        const P t47 = t43 + t46;
        const P t48 = c[1] * t6;
        const P t49 = c[2] * t14;
        const P t50 = t48 + t49;
        const P t51 = c[3] * t22;
        const P t52 = t50 - t51;
        const P t53 = c[4] * t30;
        const P t54 = t52 - t53;
        const P t55 = c[5] * t38;
        const P t56 = t54 - t55;
        const P t57 = t56 + t46;
        const P t58 = c[6] * t15;
        const P t59 = c[7] * t39;
        const P t60 = t58 + t59;
        const P t61 = c[8] * t7;
        const P t62 = t60 - t61;
        const P t63 = c[9] * t23;
        const P t64 = t62 - t63;
        const P t65 = c[10] * t31;
        const P t66 = t64 - t65;
        const P t67 = c[2] * t6;
        const P t68 = c[4] * t14;
        const P t69 = t67 - t68;
        const P t70 = c[5] * t22;
        const P t71 = t69 - t70;
        const P t72 = c[3] * t30;
        const P t73 = t71 - t72;
        const P t74 = c[1] * t38;
        const P t75 = t73 + t74;
        const P t76 = t75 + t46;
        const P t77 = c[10] * t15;
        const P t78 = c[7] * t23;
        const P t79 = t77 + t78;
        const P t80 = c[9] * t31;
        const P t81 = t79 + t80;
        const P t82 = c[6] * t7;
        const P t83 = t81 - t82;
        const P t84 = c[8] * t39;
        const P t85 = t83 - t84;
        const P t86 = c[3] * t6;
        const P t87 = t46 - t86;
        const P t88 = c[5] * t14;
        const P t89 = t87 - t88;
        const P t90 = c[2] * t22;
        const P t91 = t89 + t90;
        const P t92 = c[1] * t30;
        const P t93 = t91 + t92;
        const P t94 = c[4] * t38;
        const P t95 = t93 - t94;
        const P t96 = c[6] * t23;
        const P t97 = c[10] * t39;
        const P t98 = t96 + t97;
        const P t99 = c[9] * t7;
        const P t100 = t98 - t99;
        const P t101 = c[7] * t15;
        const P t102 = t100 - t101;
        const P t103 = c[8] * t31;
        const P t104 = t102 - t103;
        const P t105 = c[4] * t6;
        const P t106 = t46 - t105;
        const P t107 = c[3] * t14;
        const P t108 = t106 - t107;
        const P t109 = c[1] * t22;
        const P t110 = t108 + t109;
        const P t111 = c[5] * t30;
        const P t112 = t110 - t111;
        const P t113 = c[2] * t38;
        const P t114 = t112 + t113;
        const P t115 = c[10] * t7;
        const P t116 = c[9] * t15;
        const P t117 = t115 + t116;
        const P t118 = c[8] * t23;
        const P t119 = t117 + t118;
        const P t120 = c[7] * t31;
        const P t121 = t119 + t120;
        const P t122 = c[6] * t39;
        const P t123 = t121 + t122;
        const P t124 = c[5] * t6;
        const P t125 = t46 - t124;
        const P t126 = c[1] * t14;
        const P t127 = t125 + t126;
        const P t128 = c[4] * t22;
        const P t129 = t127 - t128;
        const P t130 = c[2] * t30;
        const P t131 = t129 + t130;
        const P t132 = c[3] * t38;
        const P t133 = t131 - t132;
        const P t134 = c[6] * t31;
        const P t135 = c[9] * t39;
        const P t136 = t134 + t135;
        const P t137 = c[7] * t7;
        const P t138 = t136 - t137;
        const P t139 = c[8] * t15;
        const P t140 = t138 - t139;
        const P t141 = c[10] * t23;
        const P t142 = t140 - t141;
        const P t143 = shuffled<1, 3>(t3, t1);
        const P t144 = shuffled<1, 3>(t0, t4);
        // real block of 11
        const P t145 = t143 - t144;
        const P t146 = t143 + t144;
        const P t147 = shuffled<1, 3>(t11, t9);
        const P t148 = shuffled<1, 3>(t8, t12);
        const P t149 = t147 - t148;
        const P t150 = t147 + t148;
        const P t151 = shuffled<1, 3>(t16, t17);
        const P t152 = shuffled<1, 3>(t19, t20);
        const P t153 = t151 + t152;
        const P t154 = shuffled<0, 3>(t152, t151);
        const P t155 = shuffled<0, 3>(t151, t152);
        const P t156 = t154 - t155;
        const P t157 = shuffled<1, 3>(t24, t25);
        const P t158 = shuffled<1, 3>(t27, t28);
        const P t159 = t157 + t158;
        const P t160 = shuffled<0, 3>(t157, t158);
        const P t161 = shuffled<0, 3>(t158, t157);
        const P t162 = t160 - t161;
        const P t163 = shuffled<1, 3>(t32, t33);
        const P t164 = shuffled<1, 3>(t35, t36);
        const P t165 = t163 + t164;
        const P t166 = shuffled<0, 3>(t163, t164);
        const P t167 = shuffled<0, 3>(t164, t163);
        const P t168 = t166 - t167;
        const P t169 = t145 + t149;
        const P t170 = flipped<1, 0>(t153);
        const P t171 = t169 + t170;
        const P t172 = flipped<0, 1>(t159);
        const P t173 = t171 + t172;
        const P t174 = flipped<0, 1>(t165);
        const P t175 = t173 + t174;
        const P t176 = shuffled<1, 3>(t44, t45);
        const P t177 = flipped<0, 1>(t176);
        const P t178 = t175 + t177;
        const P t179 = c[1] * t145;
        const P t180 = c[2] * t149;
        const P t181 = t179 + t180;
        const P t182 = P(c[3], -c[3]) * t153;
        const P t183 = t181 + t182;
        const P t184 = P(-c[4], c[4]) * t159;
        const P t185 = t183 + t184;
        const P t186 = P(-c[5], c[5]) * t165;
        const P t187 = t185 + t186;
        const P t188 = t187 + t177;
        const P t189 = c[8] * t146;
        const P t190 = c[6] * t150;
        const P t191 = shuffled<0, 3>(t189, t190);
        const P t192 = c[7] * t168;
        const P t193 = t191 + t192;
        const P t194 = shuffled<0, 3>(t190, t189);
        const P t195 = t193 - t194;
        const P t196 = c[9] * t156;
        const P t197 = t195 - t196;
        const P t198 = c[10] * t162;
        const P t199 = t197 - t198;
        const P t200 = c[2] * t145;
        const P t201 = c[4] * t149;
        const P t202 = t200 - t201;
        const P t203 = P(c[5], -c[5]) * t153;
        const P t204 = t202 + t203;
        const P t205 = P(-c[3], c[3]) * t159;
        const P t206 = t204 + t205;
        const P t207 = P(c[1], -c[1]) * t165;
        const P t208 = t206 + t207;
        const P t209 = t208 + t177;
        const P t210 = c[6] * t146;
        const P t211 = c[10] * t150;
        const P t212 = shuffled<0, 3>(t210, t211);
        const P t213 = c[7] * t156;
        const P t214 = t212 + t213;
        const P t215 = c[9] * t162;
        const P t216 = t214 + t215;
        const P t217 = shuffled<0, 3>(t211, t210);
        const P t218 = t216 - t217;
        const P t219 = c[8] * t168;
        const P t220 = t218 - t219;
        const P t221 = P(-c[3], c[3]) * t145;
        const P t222 = t176 + t221;
        const P t223 = P(-c[5], c[5]) * t149;
        const P t224 = t222 + t223;
        const P t225 = P(-c[2], c[2]) * t153;
        const P t226 = flipped<0, 1>(t224);
        const P t227 = t225 + t226;
        const P t228 = P(c[1], -c[1]) * t159;
        const P t229 = t227 + t228;
        const P t230 = P(-c[4], c[4]) * t165;
        const P t231 = t229 + t230;
        const P t232 = c[9] * t146;
        const P t233 = c[6] * t156;
        const P t234 = shuffled<0, 3>(t232, t233);
        const P t235 = c[7] * t150;
        const P t236 = c[10] * t168;
        const P t237 = shuffled<0, 3>(t235, t236);
        const P t238 = t234 + t237;
        const P t239 = shuffled<0, 3>(t233, t232);
        const P t240 = flipped<0, 1>(t239);
        const P t241 = t238 + t240;
        const P t242 = shuffled<0, 3>(t236, t235);
        const P t243 = flipped<0, 1>(t242);
        const P t244 = t241 + t243;
        const P t245 = c[8] * t162;
        const P t246 = t244 - t245;
        const P t247 = P(-c[4], c[4]) * t145;
        const P t248 = t176 + t247;
        const P t249 = P(-c[3], c[3]) * t149;
        const P t250 = t248 + t249;
        const P t251 = P(-c[1], c[1]) * t153;
        const P t252 = flipped<0, 1>(t250);
        const P t253 = t251 + t252;
        const P t254 = P(-c[5], c[5]) * t159;
        const P t255 = t253 + t254;
        const P t256 = P(c[2], -c[2]) * t165;
        const P t257 = t255 + t256;
        const P t258 = c[10] * t146;
        const P t259 = c[9] * t150;
        const P t260 = t258 + t259;
        const P t261 = P(-c[8], c[8]) * t156;
        const P t262 = t260 + t261;
        const P t263 = P(-c[7], c[7]) * t162;
        const P t264 = t262 + t263;
        const P t265 = P(-c[6], c[6]) * t168;
        const P t266 = t264 + t265;
        const P t267 = P(-c[5], c[5]) * t145;
        const P t268 = t176 + t267;
        const P t269 = c[1] * t149;
        const P t270 = flipped<0, 1>(t268);
        const P t271 = t269 + t270;
        const P t272 = P(c[4], -c[4]) * t153;
        const P t273 = t271 + t272;
        const P t274 = P(c[2], -c[2]) * t159;
        const P t275 = t273 + t274;
        const P t276 = P(-c[3], c[3]) * t165;
        const P t277 = t275 + t276;
        const P t278 = c[7] * t146;
        const P t279 = c[6] * t162;
        const P t280 = shuffled<0, 3>(t278, t279);
        const P t281 = c[8] * t150;
        const P t282 = c[9] * t168;
        const P t283 = shuffled<0, 3>(t281, t282);
        const P t284 = t280 + t283;
        const P t285 = shuffled<0, 3>(t279, t278);
        const P t286 = flipped<0, 1>(t285);
        const P t287 = t284 + t286;
        const P t288 = shuffled<0, 3>(t282, t281);
        const P t289 = flipped<0, 1>(t288);
        const P t290 = t287 + t289;
        const P t291 = c[10] * t156;
        const P t292 = t290 - t291;
        const V x0r = io.re(0);
        const V x23r = io.re(23);
        const P t293 = joined(x0r, x23r);
        // spectrum block of 23, multiplier 2
        const P t294 = c[31] * t47;
        const P t295 = t293 - t294;
        const P t296 = c[11] * t292;
        const P t297 = c[12] * t277;
        const P t298 = t296 - t297;
        const P t299 = c[12] * t292;
        const P t300 = c[11] * t277;
        const P t301 = t299 + t300;
        const P t302 = c[13] * t57;
        const P t303 = c[14] * t66;
        const P t304 = t302 - t303;
        const P t305 = c[13] * t66;
        const P t306 = c[14] * t57;
        const P t307 = t305 + t306;
        const P t308 = c[15] * t266;
        const P t309 = P(c[16], -c[16]) * t257;
        const P t310 = t308 + t309;
        const P t311 = c[16] * t266;
        const P t312 = P(-c[15], c[15]) * t257;
        const P t313 = t311 + t312;
        const P t314 = c[17] * t85;
        const P t315 = c[18] * t76;
        const P t316 = t314 - t315;
        const P t317 = c[18] * t85;
        const P t318 = c[17] * t76;
        const P t319 = t317 + t318;
        const P t320 = c[19] * t246;
        const P t321 = c[20] * t231;
        const P t322 = t320 - t321;
        const P t323 = c[20] * t246;
        const P t324 = c[19] * t231;
        const P t325 = t323 + t324;
        const P t326 = c[21] * t104;
        const P t327 = c[22] * t95;
        const P t328 = t326 - t327;
        const P t329 = c[22] * t104;
        const P t330 = c[21] * t95;
        const P t331 = t329 + t330;
        const P t332 = c[23] * t209;
        const P t333 = c[24] * t220;
        const P t334 = t332 - t333;
        const P t335 = c[23] * t220;
        const P t336 = c[24] * t209;
        const P t337 = t335 + t336;
        const P t338 = c[25] * t114;
        const P t339 = c[26] * t123;
        const P t340 = t338 + t339;
        const P t341 = c[26] * t114;
        const P t342 = c[25] * t123;
        const P t343 = t341 - t342;
        const P t344 = c[27] * t188;
        const P t345 = c[28] * t199;
        const P t346 = t344 + t345;
        const P t347 = c[28] * t188;
        const P t348 = c[27] * t199;
        const P t349 = t347 - t348;
        const P t350 = c[29] * t133;
        const P t351 = c[30] * t142;
        const P t352 = t350 - t351;
        const P t353 = c[29] * t142;
        const P t354 = c[30] * t133;
        const P t355 = t353 + t354;
        // spectrum block of 11, multiplier 2
        const P t356 = t304 + t316;
        const P t357 = t356 + t328;
        const P t358 = t357 + t340;
        const P t359 = t358 + t352;
        const P t360 = t359 + t295;
        const P t361 = c[1] * t304;
        const P t362 = c[2] * t316;
        const P t363 = t361 + t362;
        const P t364 = c[3] * t328;
        const P t365 = t363 - t364;
        const P t366 = c[4] * t340;
        const P t367 = t365 - t366;
        const P t368 = c[5] * t352;
        const P t369 = t367 - t368;
        const P t370 = t369 + t295;
        const P t371 = c[8] * t307;
        const P t372 = c[6] * t319;
        const P t373 = t371 - t372;
        const P t374 = c[9] * t331;
        const P t375 = t373 - t374;
        const P t376 = c[10] * t343;
        const P t377 = t375 + t376;
        const P t378 = c[7] * t355;
        const P t379 = t377 + t378;
        const P t380 = t370 - t379;
        const P t381 = t370 + t379;
        const P t382 = c[2] * t304;
        const P t383 = c[4] * t316;
        const P t384 = t382 - t383;
        const P t385 = c[5] * t328;
        const P t386 = t384 - t385;
        const P t387 = c[3] * t340;
        const P t388 = t386 - t387;
        const P t389 = c[1] * t352;
        const P t390 = t388 + t389;
        const P t391 = t390 + t295;
        const P t392 = c[6] * t307;
        const P t393 = c[10] * t319;
        const P t394 = t392 - t393;
        const P t395 = c[7] * t331;
        const P t396 = t394 + t395;
        const P t397 = c[9] * t343;
        const P t398 = t396 - t397;
        const P t399 = c[8] * t355;
        const P t400 = t398 - t399;
        const P t401 = t391 - t400;
        const P t402 = t391 + t400;
        const P t403 = c[3] * t304;
        const P t404 = t295 - t403;
        const P t405 = c[5] * t316;
        const P t406 = t404 - t405;
        const P t407 = c[2] * t328;
        const P t408 = t406 + t407;
        const P t409 = c[1] * t340;
        const P t410 = t408 + t409;
        const P t411 = c[4] * t352;
        const P t412 = t410 - t411;
        const P t413 = c[9] * t307;
        const P t414 = c[7] * t319;
        const P t415 = t413 + t414;
        const P t416 = c[6] * t331;
        const P t417 = t415 + t416;
        const P t418 = c[8] * t343;
        const P t419 = t417 + t418;
        const P t420 = c[10] * t355;
        const P t421 = t419 + t420;
        const P t422 = t412 - t421;
        const P t423 = t412 + t421;
        const P t424 = c[4] * t304;
        const P t425 = t295 - t424;
        const P t426 = c[3] * t316;
        const P t427 = t425 - t426;
        const P t428 = c[1] * t328;
        const P t429 = t427 + t428;
        const P t430 = c[5] * t340;
        const P t431 = t429 - t430;
        const P t432 = c[2] * t352;
        const P t433 = t431 + t432;
        const P t434 = c[10] * t307;
        const P t435 = c[9] * t319;
        const P t436 = t434 + t435;
        const P t437 = c[8] * t331;
        const P t438 = t436 - t437;
        const P t439 = c[7] * t343;
        const P t440 = t438 + t439;
        const P t441 = c[6] * t355;
        const P t442 = t440 - t441;
        const P t443 = t433 - t442;
        const P t444 = t433 + t442;
        const P t445 = c[5] * t304;
        const P t446 = t295 - t445;
        const P t447 = c[1] * t316;
        const P t448 = t446 + t447;
        const P t449 = c[4] * t328;
        const P t450 = t448 - t449;
        const P t451 = c[2] * t340;
        const P t452 = t450 + t451;
        const P t453 = c[3] * t352;
        const P t454 = t452 - t453;
        const P t455 = c[7] * t307;
        const P t456 = c[8] * t319;
        const P t457 = t455 + t456;
        const P t458 = c[10] * t331;
        const P t459 = t457 - t458;
        const P t460 = c[6] * t343;
        const P t461 = t459 - t460;
        const P t462 = c[9] * t355;
        const P t463 = t461 + t462;
        const P t464 = t454 - t463;
        const P t465 = t454 + t463;
        // spectrum block of 11, multiplier 2
        const P t466 = t346 + t334;
        const P t467 = t466 + t322;
        const P t468 = flipped<1, 0>(t310);
        const P t469 = t467 + t468;
        const P t470 = t469 + t298;
        // spectrum block of 23, multiplier 2
        const P t471 = c[32] * t178;
        // spectrum block of 11, multiplier 2
        const P t472 = t470 - t471;
        const P t473 = c[1] * t346;
        const P t474 = c[2] * t334;
        const P t475 = t473 + t474;
        const P t476 = c[3] * t322;
        const P t477 = t475 - t476;
        const P t478 = P(c[4], -c[4]) * t310;
        const P t479 = t477 + t478;
        const P t480 = c[5] * t298;
        const P t481 = t479 - t480;
        const P t482 = t481 - t471;
        const P t483 = c[6] * t337;
        const P t484 = c[8] * t349;
        const P t485 = t483 - t484;
        const P t486 = c[9] * t325;
        const P t487 = t485 - t486;
        const P t488 = P(-c[10], c[10]) * t313;
        const P t489 = t487 + t488;
        const P t490 = c[7] * t301;
        const P t491 = t489 - t490;
        const P t492 = t482 - t491;
        const P t493 = t482 + t491;
        const P t494 = c[2] * t346;
        const P t495 = c[4] * t334;
        const P t496 = t494 - t495;
        const P t497 = c[5] * t322;
        const P t498 = t496 - t497;
        const P t499 = P(c[3], -c[3]) * t310;
        const P t500 = t498 + t499;
        const P t501 = c[1] * t298;
        const P t502 = t500 + t501;
        const P t503 = t502 - t471;
        const P t504 = c[10] * t337;
        const P t505 = c[6] * t349;
        const P t506 = t504 - t505;
        const P t507 = c[7] * t325;
        const P t508 = t506 + t507;
        const P t509 = P(c[9], -c[9]) * t313;
        const P t510 = t508 + t509;
        const P t511 = c[8] * t301;
        const P t512 = t510 + t511;
        const P t513 = t503 - t512;
        const P t514 = t503 + t512;
        const P t515 = c[3] * t346;
        const P t516 = t471 + t515;
        const P t517 = c[5] * t334;
        const P t518 = t516 + t517;
        const P t519 = c[2] * t322;
        const P t520 = t519 - t518;
        const P t521 = P(-c[1], c[1]) * t310;
        const P t522 = t520 + t521;
        const P t523 = c[4] * t298;
        const P t524 = t522 - t523;
        const P t525 = c[9] * t349;
        const P t526 = c[7] * t337;
        const P t527 = t525 + t526;
        const P t528 = c[6] * t325;
        const P t529 = t528 - t527;
        const P t530 = P(-c[8], c[8]) * t313;
        const P t531 = t529 + t530;
        const P t532 = c[10] * t301;
        const P t533 = t531 - t532;
        const P t534 = t524 - t533;
        const P t535 = t524 + t533;
        const P t536 = c[4] * t346;
        const P t537 = t471 + t536;
        const P t538 = c[3] * t334;
        const P t539 = t537 + t538;
        const P t540 = c[1] * t322;
        const P t541 = t540 - t539;
        const P t542 = P(c[5], -c[5]) * t310;
        const P t543 = t541 + t542;
        const P t544 = c[2] * t298;
        const P t545 = t543 + t544;
        const P t546 = c[10] * t349;
        const P t547 = c[9] * t337;
        const P t548 = t546 + t547;
        const P t549 = c[8] * t325;
        const P t550 = t548 + t549;
        const P t551 = c[7] * t313;
        const P t552 = flipped<0, 1>(t550);
        const P t553 = t551 + t552;
        const P t554 = flipped<1, 0>(t553);
        const P t555 = c[6] * t301;
        const P t556 = t554 + t555;
        const P t557 = t545 - t556;
        const P t558 = t545 + t556;
        const P t559 = c[5] * t346;
        const P t560 = t471 + t559;
        const P t561 = c[1] * t334;
        const P t562 = t561 - t560;
        const P t563 = c[4] * t322;
        const P t564 = t562 - t563;
        const P t565 = P(-c[2], c[2]) * t310;
        const P t566 = t564 + t565;
        const P t567 = c[3] * t298;
        const P t568 = t566 - t567;
        const P t569 = c[7] * t349;
        const P t570 = c[8] * t337;
        const P t571 = t569 + t570;
        const P t572 = c[10] * t325;
        const P t573 = t571 + t572;
        const P t574 = flipped<1, 0>(t573);
        const P t575 = c[6] * t313;
        const P t576 = t574 + t575;
        const P t577 = P(-c[9], c[9]) * t301;
        const P t578 = t576 + t577;
        const P t579 = flipped<1, 0>(t578);
        const P t580 = t568 + t579;
        const P t581 = t568 - t579;
        // spectrum block of 2
        const P t582 = t360 + t472;
        const P t583 = t360 - t472;
        // spectrum block of 2
        const P t584 = t401 + t513;
        const P t585 = t401 - t513;
        // spectrum block of 2
        const P t586 = t443 + t557;
        const P t587 = t443 - t557;
        // spectrum block of 2
        const P t588 = t465 + t581;
        const P t589 = t465 - t581;
        // spectrum block of 2
        const P t590 = t423 + t535;
        const P t591 = t423 - t535;
        // spectrum block of 2
        const P t592 = t381 + t493;
        const P t593 = t381 - t493;
        // spectrum block of 2
        const P t594 = t380 + t492;
        const P t595 = t380 - t492;
        // spectrum block of 2
        const P t596 = t422 + t534;
        const P t597 = t422 - t534;
        // spectrum block of 2
        const P t598 = t464 + t580;
        const P t599 = t464 - t580;
        // spectrum block of 2
        const P t600 = t444 + t558;
        const P t601 = t444 - t558;
        // spectrum block of 2
        const P t602 = t402 + t514;
        const P t603 = t402 - t514;
        // spectrum block of 23, multiplier 2
        const P t604 = t293 + t47;
        const P t605 = shuffled<0, 2>(t604, t582);
        const P t606 = shuffled<1, 3>(t604, t582);
        // spectrum block of 2
        const P t607 = t605 + t606;
        io.out(0, 2, t607);
        const P t608 = t605 - t606;
        io.out(23, 25, t608);
        const P t609 = shuffled<0, 2>(t602, t588);
        const P t610 = shuffled<1, 3>(t602, t588);
        // spectrum block of 2
        const P t611 = t609 + t610;
        io.out(4, 6, t611);
        const P t612 = t609 - t610;
        io.out(27, 29, t612);
        const P t613 = shuffled<0, 2>(t600, t593);
        const P t614 = shuffled<1, 3>(t600, t593);
        // spectrum block of 2
        const P t615 = t613 + t614;
        io.out(8, 10, t615);
        const P t616 = t613 - t614;
        io.out(31, 33, t616);
        const P t617 = shuffled<0, 2>(t586, t597);
        const P t618 = shuffled<1, 3>(t586, t597);
        // spectrum block of 2
        const P t619 = t617 + t618;
        io.out(12, 14, t619);
        const P t620 = t617 - t618;
        io.out(35, 37, t620);
        const P t621 = shuffled<0, 2>(t598, t594);
        const P t622 = shuffled<1, 3>(t598, t594);
        // spectrum block of 2
        const P t623 = t621 + t622;
        io.out(16, 18, t623);
        const P t624 = t621 - t622;
        io.out(39, 41, t624);
        const P t625 = shuffled<0, 2>(t591, t585);
        const P t626 = shuffled<1, 3>(t591, t585);
        // spectrum block of 2
        const P t627 = t625 + t626;
        io.out(20, 22, t627);
        const P t628 = t625 - t626;
        io.out(43, 45, t628);
        const P t629 = shuffled<0, 2>(t584, t590);
        const P t630 = shuffled<1, 3>(t584, t590);
        // spectrum block of 2
        const P t631 = t629 + t630;
        io.out(24, 26, t631);
        const P t632 = t629 - t630;
        io.out(1, 3, t632);
        const P t633 = shuffled<0, 2>(t595, t599);
        const P t634 = shuffled<1, 3>(t595, t599);
        // spectrum block of 2
        const P t635 = t633 + t634;
        io.out(28, 30, t635);
        const P t636 = t633 - t634;
        io.out(5, 7, t636);
        const P t637 = shuffled<0, 2>(t596, t587);
        const P t638 = shuffled<1, 3>(t596, t587);
        // spectrum block of 2
        const P t639 = t637 + t638;
        io.out(32, 34, t639);
        const P t640 = t637 - t638;
        io.out(9, 11, t640);
        const P t641 = shuffled<0, 2>(t592, t601);
        const P t642 = shuffled<1, 3>(t592, t601);
        // spectrum block of 2
        const P t643 = t641 + t642;
        io.out(36, 38, t643);
        const P t644 = t641 - t642;
        io.out(13, 15, t644);
        const P t645 = shuffled<0, 2>(t589, t603);
        const P t646 = shuffled<1, 3>(t589, t603);
        // spectrum block of 2
        const P t647 = t645 + t646;
        io.out(40, 42, t647);
        const P t648 = t645 - t646;
        io.out(17, 19, t648);
        const V t649 = part<0>(t583);
        const V t650 = part<1>(t583);
        // spectrum block of 2
        const V t651 = t649 + t650;
        io.out(44, t651);
        const V t652 = t649 - t650;
        io.out(21, t652);
    }
};

}  // namespace zulg
