// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 58.
// Inverse DFT to 58 real points, prime-factor 29, 2.
// 335 additions, 335 subtractions, 476 multiplications (534 with `scale`); 35 constants; 71 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<58> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 2/7
        0.9009688679024191,  // c[1]: -cos 2 pi 10/7
        0.6234898018587335,  // c[2]: cos 2 pi 8/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 10/7
        0.7818314824680298,  // c[5]: sin 2 pi 8/7
        0.21044290248272673,  // c[6]: -P[1] of 29
        0.3219828698364479,  // c[7]: -Q[1] of 29
        0.19791793485411824,  // c[8]: Q[2] of 29
        0.3298297662985413,  // c[9]: P[2] of 29
        0.384463442096457,  // c[10]: -P[3] of 29
        0.012126226322052493,  // c[11]: Q[3] of 29
        0.1330720128259635,  // c[12]: -Q[4] of 29
        0.3609030660383976,  // c[13]: P[4] of 29
        0.13150502224471186,  // c[14]: P[5] of 29
        0.36147698792300353,  // c[15]: -Q[5] of 29
        0.054028864524680344,  // c[16]: -Q[6] of 29
        0.38084126020120657,  // c[17]: P[6] of 29
        0.3777140697119294,  // c[18]: -P[7] of 29
        0.07274108340629196,  // c[19]: Q[7] of 29
        0.26515058713755163,  // c[20]: Q[8] of 29
        0.2786653006997481,  // c[21]: P[8] of 29
        0.3603875070846735,  // c[22]: P[9] of 29
        0.13446199615788765,  // c[23]: Q[9] of 29
        0.24228395147216553,  // c[24]: -Q[10] of 29
        0.2987602224736465,  // c[25]: -P[10] of 29
        0.019970959548377194,  // c[26]: -P[11] of 29
        0.38413584113980626,  // c[27]: Q[11] of 29
        0.3753398540149231,  // c[28]: -Q[12] of 29
        0.08413784916151361,  // c[29]: P[12] of 29
        0.1800860537573993,  // c[30]: -P[13] of 29
        0.3398943908268515,  // c[31]: -Q[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        const V x4r = io.re(4);
        const V t6 = two * x4r;
        const V x4i = io.im(4);
        const V t7 = two * x4i;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        const V x5i = io.im(5);
        const V t9 = two * x5i;
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x6i = io.im(6);
        const V t11 = two * x6i;
        const V x7r = io.re(7);
        const V t12 = two * x7r;
        const V x7i = io.im(7);
        const V t13 = two * x7i;
        const V x8r = io.re(8);
        const V t14 = two * x8r;
        const V x8i = io.im(8);
        const V t15 = two * x8i;
        const V x9r = io.re(9);
        const V t16 = two * x9r;
        const V x9i = io.im(9);
        const V t17 = two * x9i;
        const V x10r = io.re(10);
        const V t18 = two * x10r;
        const V x10i = io.im(10);
        const V t19 = two * x10i;
        const V x11r = io.re(11);
        const V t20 = two * x11r;
        const V x11i = io.im(11);
        const V t21 = two * x11i;
        const V x12r = io.re(12);
        const V t22 = two * x12r;
        const V x12i = io.im(12);
        const V t23 = two * x12i;
        const V x13r = io.re(13);
        const V t24 = two * x13r;
        const V x13i = io.im(13);
        const V t25 = two * x13i;
        const V x14r = io.re(14);
        const V t26 = two * x14r;
        const V x14i = io.im(14);
        const V t27 = two * x14i;
        const V x15r = io.re(15);
        const V t28 = two * x15r;
        const V x15i = io.im(15);
        const V t29 = two * x15i;
        const V x16r = io.re(16);
        const V t30 = two * x16r;
        const V x16i = io.im(16);
        const V t31 = two * x16i;
        const V x17r = io.re(17);
        const V t32 = two * x17r;
        const V x17i = io.im(17);
        const V t33 = two * x17i;
        const V x18r = io.re(18);
        const V t34 = two * x18r;
        const V x18i = io.im(18);
        const V t35 = two * x18i;
        const V x19r = io.re(19);
        const V t36 = two * x19r;
        const V x19i = io.im(19);
        const V t37 = two * x19i;
        const V x20r = io.re(20);
        const V t38 = two * x20r;
        const V x20i = io.im(20);
        const V t39 = two * x20i;
        const V x21r = io.re(21);
        const V t40 = two * x21r;
        const V x21i = io.im(21);
        const V t41 = two * x21i;
        const V x22r = io.re(22);
        const V t42 = two * x22r;
        const V x22i = io.im(22);
        const V t43 = two * x22i;
        const V x23r = io.re(23);
        const V t44 = two * x23r;
        const V x23i = io.im(23);
        const V t45 = two * x23i;
        const V x24r = io.re(24);
        const V t46 = two * x24r;
        const V x24i = io.im(24);
        const V t47 = two * x24i;
        const V x25r = io.re(25);
        const V t48 = two * x25r;
        const V x25i = io.im(25);
        const V t49 = two * x25i;
        const V x26r = io.re(26);
        const V t50 = two * x26r;
        const V x26i = io.im(26);
        const V t51 = two * x26i;
        const V x27r = io.re(27);
        const V t52 = two * x27r;
        const V x27i = io.im(27);
        const V t53 = two * x27i;
        const V x28r = io.re(28);
        const V t54 = two * x28r;
        const V x28i = io.im(28);
        const V t55 = two * x28i;
        // real block of 2
        const V t56 = t2 + t46;
        const V t57 = t2 - t46;
        // real block of 2
        const V t58 = t14 + t38;
        const V t59 = t14 - t38;
        // real block of 2
        const V t60 = t50 + t42;
        const V t61 = t50 - t42;
        // real block of 2
        const V t62 = t22 + t54;
        const V t63 = t22 - t54;
        // real block of 2
        const V t64 = t18 + t6;
        const V t65 = t18 - t6;
        // real block of 2
        const V t66 = t34 + t30;
        const V t67 = t34 - t30;
        // real block of 2
        const V t68 = t26 + t10;
        const V t69 = t26 - t10;
        // real block of 7, multiplier 2
        const V t70 = t58 + t68;
        const V t71 = t58 - t68;
        const V t72 = t66 + t60;
        const V t73 = t66 - t60;
        const V t74 = t64 + t62;
        const V t75 = t64 - t62;
        const V t76 = t70 + t72;
        const V t77 = t76 + t74;
        const V t78 = t77 + t56;
        const V t79 = c[0] * t70;
        const V t80 = t56 - t79;
        const V t81 = c[1] * t72;
        const V t82 = t80 - t81;
        const V t83 = c[2] * t74;
        const V t84 = t82 + t83;
        const V t85 = c[3] * t71;
        const V t86 = c[4] * t73;
        const V t87 = c[5] * t75;
        const V t88 = t85 + t86;
        const V t89 = t88 + t87;
        const V t90 = c[1] * t70;
        const V t91 = t56 - t90;
        const V t92 = c[2] * t72;
        const V t93 = t91 + t92;
        const V t94 = c[0] * t74;
        const V t95 = t93 - t94;
        const V t96 = c[4] * t71;
        const V t97 = c[5] * t73;
        const V t98 = c[3] * t75;
        const V t99 = t96 + t97;
        const V t100 = t99 - t98;
        const V t101 = c[2] * t70;
        const V t102 = c[0] * t72;
        const V t103 = t101 - t102;
        const V t104 = c[1] * t74;
        const V t105 = t103 - t104;
        const V t106 = t105 + t56;
        const V t107 = c[5] * t71;
        const V t108 = c[3] * t73;
        const V t109 = c[4] * t75;
        const V t110 = t107 - t108;
        const V t111 = t110 - t109;
        // real block of 7, multiplier 2
        const V t112 = t59 + t69;
        const V t113 = t59 - t69;
        const V t114 = t67 + t61;
        const V t115 = t67 - t61;
        const V t116 = t65 + t63;
        const V t117 = t65 - t63;
        const V t118 = t112 + t114;
        const V t119 = t118 + t116;
        const V t120 = t119 + t57;
        const V t121 = c[0] * t112;
        const V t122 = t57 - t121;
        const V t123 = c[1] * t114;
        const V t124 = t122 - t123;
        const V t125 = c[2] * t116;
        const V t126 = t124 + t125;
        const V t127 = c[3] * t113;
        const V t128 = c[4] * t115;
        const V t129 = c[5] * t117;
        const V t130 = t127 + t128;
        const V t131 = t130 + t129;
        const V t132 = c[1] * t112;
        const V t133 = t57 - t132;
        const V t134 = c[2] * t114;
        const V t135 = t133 + t134;
        const V t136 = c[0] * t116;
        const V t137 = t135 - t136;
        const V t138 = c[4] * t113;
        const V t139 = c[5] * t115;
        const V t140 = c[3] * t117;
        const V t141 = t138 + t139;
        const V t142 = t141 - t140;
        const V t143 = c[2] * t112;
        const V t144 = c[0] * t114;
        const V t145 = t143 - t144;
        const V t146 = c[1] * t116;
        const V t147 = t145 - t146;
        const V t148 = t147 + t57;
        const V t149 = c[5] * t113;
        const V t150 = c[3] * t115;
        const V t151 = c[4] * t117;
        const V t152 = t149 - t150;
        const V t153 = t152 - t151;
        // real block of 7
        const V t154 = t27 - t15;
        const V t155 = t15 + t27;
        const V t156 = t35 + t51;
        const V t157 = t51 - t35;
        const V t158 = t19 + t23;
        const V t159 = t23 - t19;
        const V t160 = t154 - t156;
        const V t161 = t160 - t158;
        const V t162 = t161 + t3;
        const V t163 = c[2] * t154;
        const V t164 = c[0] * t156;
        const V t165 = t163 + t164;
        const V t166 = c[1] * t158;
        const V t167 = t165 + t166;
        const V t168 = t167 + t3;
        const V t169 = c[5] * t155;
        const V t170 = c[3] * t157;
        const V t171 = c[4] * t159;
        const V t172 = t169 + t170;
        const V t173 = t172 + t171;
        const V t174 = c[0] * t154;
        const V t175 = t3 - t174;
        const V t176 = c[1] * t156;
        const V t177 = t175 + t176;
        const V t178 = c[2] * t158;
        const V t179 = t177 - t178;
        const V t180 = c[3] * t155;
        const V t181 = c[4] * t157;
        const V t182 = c[5] * t159;
        const V t183 = t180 - t181;
        const V t184 = t183 - t182;
        const V t185 = c[1] * t154;
        const V t186 = t3 - t185;
        const V t187 = c[2] * t156;
        const V t188 = t186 - t187;
        const V t189 = c[0] * t158;
        const V t190 = t188 + t189;
        const V t191 = c[4] * t155;
        const V t192 = c[5] * t157;
        const V t193 = c[3] * t159;
        const V t194 = t191 + t193;
        const V t195 = t194 - t192;
        // real block of 7
        const V t196 = t55 - t31;
        const V t197 = t31 + t55;
        const V t198 = t43 + t11;
        const V t199 = t43 - t11;
        const V t200 = t39 + t47;
        const V t201 = t47 - t39;
        const V t202 = t196 + t198;
        const V t203 = t202 - t200;
        const V t204 = t203 + t7;
        const V t205 = c[2] * t196;
        const V t206 = c[0] * t198;
        const V t207 = t205 - t206;
        const V t208 = c[1] * t200;
        const V t209 = t207 + t208;
        const V t210 = t209 + t7;
        const V t211 = c[5] * t197;
        const V t212 = c[3] * t199;
        const V t213 = c[4] * t201;
        const V t214 = t211 + t212;
        const V t215 = t214 + t213;
        const V t216 = c[0] * t196;
        const V t217 = t7 - t216;
        const V t218 = c[1] * t198;
        const V t219 = t217 - t218;
        const V t220 = c[2] * t200;
        const V t221 = t219 - t220;
        const V t222 = c[3] * t197;
        const V t223 = c[4] * t199;
        const V t224 = c[5] * t201;
        const V t225 = t222 - t223;
        const V t226 = t225 - t224;
        const V t227 = c[1] * t196;
        const V t228 = t7 - t227;
        const V t229 = c[2] * t198;
        const V t230 = t228 + t229;
        const V t231 = c[0] * t200;
        const V t232 = t230 + t231;
        const V t233 = c[4] * t197;
        const V t234 = c[5] * t199;
        const V t235 = c[3] * t201;
        const V t236 = t233 + t235;
        const V t237 = t236 - t234;
        // skew block of 14
        const V t238 = c[0] * t237;
        const V t239 = c[3] * t232;
        const V t240 = t239 - t238;
        const V t241 = c[0] * t232;
        const V t242 = c[3] * t237;
        const V t243 = t242 + t241;
        // complex block of 2
        const V t244 = t190 + t240;
        const V t245 = t195 + t243;
        const V t246 = t190 - t240;
        const V t247 = t243 - t195;
        // skew block of 14
        const V t248 = c[2] * t226;
        const V t249 = c[5] * t221;
        const V t250 = t249 - t248;
        const V t251 = c[2] * t221;
        const V t252 = c[5] * t226;
        const V t253 = t252 + t251;
        // complex block of 2
        const V t254 = t179 + t250;
        const V t255 = t184 + t253;
        const V t256 = t179 - t250;
        const V t257 = t253 - t184;
        // skew block of 14
        const V t258 = c[1] * t215;
        const V t259 = c[4] * t210;
        const V t260 = t259 - t258;
        const V t261 = c[1] * t210;
        const V t262 = c[4] * t215;
        const V t263 = t262 + t261;
        // complex block of 2
        const V t264 = t168 + t260;
        const V t265 = t173 + t263;
        const V t266 = t168 - t260;
        const V t267 = t263 - t173;
        // spectrum block of 29, multiplier 2
        const V t268 = c[32] * t78;
        const V x0r = io.re(0);
        const V t269 = x0r - t268;
        const V t270 = c[6] * t245;
        const V t271 = c[7] * t244;
        const V t272 = t271 + t270;
        const V t273 = c[6] * t244;
        const V t274 = c[7] * t245;
        const V t275 = t274 - t273;
        const V t276 = c[8] * t153;
        const V t277 = c[9] * t148;
        const V t278 = t277 + t276;
        const V t279 = c[8] * t148;
        const V t280 = c[9] * t153;
        const V t281 = t279 - t280;
        const V t282 = c[10] * t255;
        const V t283 = c[11] * t254;
        const V t284 = t283 - t282;
        const V t285 = c[10] * t254;
        const V t286 = c[11] * t255;
        const V t287 = t286 + t285;
        const V t288 = c[12] * t89;
        const V t289 = c[13] * t84;
        const V t290 = t289 - t288;
        const V t291 = c[12] * t84;
        const V t292 = c[13] * t89;
        const V t293 = t292 + t291;
        const V t294 = c[14] * t265;
        const V t295 = c[15] * t264;
        const V t296 = t294 - t295;
        const V t297 = c[14] * t264;
        const V t298 = c[15] * t265;
        const V t299 = t298 + t297;
        const V t300 = c[16] * t142;
        const V t301 = c[17] * t137;
        const V t302 = t301 - t300;
        const V t303 = c[16] * t137;
        const V t304 = c[17] * t142;
        const V t305 = t304 + t303;
        const V t306 = c[18] * t204;
        const V t307 = c[19] * t162;
        const V t308 = t307 - t306;
        const V t309 = c[18] * t162;
        const V t310 = c[19] * t204;
        const V t311 = t310 + t309;
        const V t312 = c[20] * t100;
        const V t313 = c[21] * t95;
        const V t314 = t313 - t312;
        const V t315 = c[20] * t95;
        const V t316 = c[21] * t100;
        const V t317 = t316 + t315;
        const V t318 = c[22] * t267;
        const V t319 = c[23] * t266;
        const V t320 = t319 + t318;
        const V t321 = c[22] * t266;
        const V t322 = c[23] * t267;
        const V t323 = t321 - t322;
        const V t324 = c[24] * t131;
        const V t325 = c[25] * t126;
        const V t326 = t324 - t325;
        const V t327 = c[24] * t126;
        const V t328 = c[25] * t131;
        const V t329 = t328 + t327;
        const V t330 = c[26] * t257;
        const V t331 = c[27] * t256;
        const V t332 = t331 - t330;
        const V t333 = c[26] * t256;
        const V t334 = c[27] * t257;
        const V t335 = t334 + t333;
        const V t336 = c[28] * t111;
        const V t337 = c[29] * t106;
        const V t338 = t337 + t336;
        const V t339 = c[28] * t106;
        const V t340 = c[29] * t111;
        const V t341 = t340 - t339;
        const V t342 = c[30] * t247;
        const V t343 = c[31] * t246;
        const V t344 = t343 + t342;
        const V t345 = c[30] * t246;
        const V t346 = c[31] * t247;
        const V t347 = t346 - t345;
        const V t348 = c[33] * t120;
        // spectrum block of 7, multiplier 4
        const V t349 = t290 + t314;
        const V t350 = t349 + t338;
        const V t351 = t350 + t269;
        const V t352 = c[2] * t290;
        const V t353 = c[0] * t314;
        const V t354 = t352 - t353;
        const V t355 = c[1] * t338;
        const V t356 = t354 - t355;
        const V t357 = t356 + t269;
        const V t358 = c[5] * t293;
        const V t359 = c[3] * t317;
        const V t360 = t359 - t358;
        const V t361 = c[4] * t341;
        const V t362 = t360 + t361;
        const V t363 = t357 - t362;
        const V t364 = t357 + t362;
        const V t365 = c[0] * t290;
        const V t366 = t269 - t365;
        const V t367 = c[1] * t314;
        const V t368 = t366 - t367;
        const V t369 = c[2] * t338;
        const V t370 = t368 + t369;
        const V t371 = c[3] * t293;
        const V t372 = c[4] * t317;
        const V t373 = t371 + t372;
        const V t374 = c[5] * t341;
        const V t375 = t373 + t374;
        const V t376 = t370 + t375;
        const V t377 = t370 - t375;
        const V t378 = c[1] * t290;
        const V t379 = t269 - t378;
        const V t380 = c[2] * t314;
        const V t381 = t379 + t380;
        const V t382 = c[0] * t338;
        const V t383 = t381 - t382;
        const V t384 = c[4] * t293;
        const V t385 = c[5] * t317;
        const V t386 = t384 + t385;
        const V t387 = c[3] * t341;
        const V t388 = t387 - t386;
        const V t389 = t383 - t388;
        const V t390 = t383 + t388;
        // complex block of 7, multiplier 4
        const V t391 = t335 + t287;
        const V t392 = t332 + t284;
        const V t393 = t287 - t335;
        const V t394 = t332 - t284;
        const V t395 = t275 + t347;
        const V t396 = t272 + t344;
        const V t397 = t347 - t275;
        const V t398 = t344 - t272;
        const V t399 = t299 + t323;
        const V t400 = t296 + t320;
        const V t401 = t323 - t299;
        const V t402 = t296 - t320;
        const V t403 = t391 + t395;
        const V t404 = t403 + t399;
        const V t405 = t392 - t396;
        const V t406 = t405 + t400;
        const V t407 = t404 + t311;
        const V t408 = t406 + t308;
        const V t409 = c[2] * t391;
        const V t410 = t311 + t409;
        const V t411 = c[0] * t395;
        const V t412 = t411 - t410;
        const V t413 = c[1] * t399;
        const V t414 = t412 + t413;
        const V t415 = c[2] * t392;
        const V t416 = c[0] * t396;
        const V t417 = t415 + t416;
        const V t418 = c[1] * t400;
        const V t419 = t417 - t418;
        const V t420 = t419 + t308;
        const V t421 = c[5] * t393;
        const V t422 = c[3] * t397;
        const V t423 = t421 - t422;
        const V t424 = c[4] * t401;
        const V t425 = t423 - t424;
        const V t426 = c[5] * t394;
        const V t427 = c[3] * t398;
        const V t428 = t426 - t427;
        const V t429 = c[4] * t402;
        const V t430 = t428 - t429;
        const V t431 = t414 + t430;
        const V t432 = t420 - t425;
        const V t433 = t414 - t430;
        const V t434 = t420 + t425;
        const V t435 = c[0] * t391;
        const V t436 = c[1] * t395;
        const V t437 = t435 + t436;
        const V t438 = c[2] * t399;
        const V t439 = t437 - t438;
        const V t440 = t439 - t311;
        const V t441 = c[0] * t392;
        const V t442 = t308 - t441;
        const V t443 = c[1] * t396;
        const V t444 = t442 + t443;
        const V t445 = c[2] * t400;
        const V t446 = t444 + t445;
        const V t447 = c[3] * t393;
        const V t448 = c[4] * t397;
        const V t449 = t447 + t448;
        const V t450 = c[5] * t401;
        const V t451 = t449 + t450;
        const V t452 = c[3] * t394;
        const V t453 = c[4] * t398;
        const V t454 = t452 + t453;
        const V t455 = c[5] * t402;
        const V t456 = t454 + t455;
        const V t457 = t440 + t456;
        const V t458 = t446 - t451;
        const V t459 = t440 - t456;
        const V t460 = t446 + t451;
        const V t461 = c[1] * t391;
        const V t462 = c[2] * t395;
        const V t463 = t461 - t462;
        const V t464 = c[0] * t399;
        const V t465 = t463 + t464;
        const V t466 = t465 - t311;
        const V t467 = c[1] * t392;
        const V t468 = t308 - t467;
        const V t469 = c[2] * t396;
        const V t470 = t468 - t469;
        const V t471 = c[0] * t400;
        const V t472 = t470 - t471;
        const V t473 = c[4] * t393;
        const V t474 = c[5] * t397;
        const V t475 = t473 + t474;
        const V t476 = c[3] * t401;
        const V t477 = t475 - t476;
        const V t478 = c[4] * t394;
        const V t479 = c[5] * t398;
        const V t480 = t478 + t479;
        const V t481 = c[3] * t402;
        const V t482 = t480 - t481;
        const V t483 = t466 + t482;
        const V t484 = t472 - t477;
        const V t485 = t466 - t482;
        const V t486 = t472 + t477;
        // spectrum block of 7, multiplier 4
        const V t487 = t326 + t302;
        const V t488 = t487 + t278;
        const V t489 = t488 - t348;
        const V t490 = c[2] * t326;
        const V t491 = c[0] * t302;
        const V t492 = t490 - t491;
        const V t493 = c[1] * t278;
        const V t494 = t492 - t493;
        const V t495 = t494 - t348;
        const V t496 = c[5] * t329;
        const V t497 = c[3] * t305;
        const V t498 = t496 + t497;
        const V t499 = c[4] * t281;
        const V t500 = t498 - t499;
        const V t501 = t495 - t500;
        const V t502 = t495 + t500;
        const V t503 = c[0] * t326;
        const V t504 = t348 + t503;
        const V t505 = c[1] * t302;
        const V t506 = t504 + t505;
        const V t507 = c[2] * t278;
        const V t508 = t507 - t506;
        const V t509 = c[3] * t329;
        const V t510 = c[4] * t305;
        const V t511 = t509 - t510;
        const V t512 = c[5] * t281;
        const V t513 = t511 + t512;
        const V t514 = t508 - t513;
        const V t515 = t508 + t513;
        const V t516 = c[1] * t326;
        const V t517 = t348 + t516;
        const V t518 = c[2] * t302;
        const V t519 = t518 - t517;
        const V t520 = c[0] * t278;
        const V t521 = t519 - t520;
        const V t522 = c[4] * t329;
        const V t523 = c[5] * t305;
        const V t524 = t522 - t523;
        const V t525 = c[3] * t281;
        const V t526 = t524 - t525;
        const V t527 = t521 - t526;
        const V t528 = t521 + t526;
        // spectrum block of 2
        const V t529 = t351 + t489;
        const V t530 = t351 - t489;
        // spectrum block of 2
        const V t531 = t529 + t408;
        const V t532 = t529 - t408;
        // spectrum block of 2
        const V t533 = t530 - t407;
        const V t534 = t530 + t407;
        // spectrum block of 2
        const V t535 = t390 + t528;
        const V t536 = t390 - t528;
        // spectrum block of 2
        const V t537 = t535 + t486;
        const V t538 = t535 - t486;
        // spectrum block of 2
        const V t539 = t536 + t485;
        const V t540 = t536 - t485;
        // spectrum block of 2
        const V t541 = t363 + t501;
        const V t542 = t363 - t501;
        // spectrum block of 2
        const V t543 = t541 + t432;
        const V t544 = t541 - t432;
        // spectrum block of 2
        const V t545 = t542 + t431;
        const V t546 = t542 - t431;
        // spectrum block of 2
        const V t547 = t377 + t515;
        const V t548 = t377 - t515;
        // spectrum block of 2
        const V t549 = t547 + t460;
        const V t550 = t547 - t460;
        // spectrum block of 2
        const V t551 = t548 + t459;
        const V t552 = t548 - t459;
        // spectrum block of 2
        const V t553 = t376 + t514;
        const V t554 = t376 - t514;
        // spectrum block of 2
        const V t555 = t553 + t458;
        const V t556 = t553 - t458;
        // spectrum block of 2
        const V t557 = t554 + t457;
        const V t558 = t554 - t457;
        // spectrum block of 2
        const V t559 = t364 + t502;
        const V t560 = t364 - t502;
        // spectrum block of 2
        const V t561 = t559 + t434;
        const V t562 = t559 - t434;
        // spectrum block of 2
        const V t563 = t560 + t433;
        const V t564 = t560 - t433;
        // spectrum block of 2
        const V t565 = t389 + t527;
        const V t566 = t389 - t527;
        // spectrum block of 2
        const V t567 = t565 + t484;
        const V t568 = t565 - t484;
        // spectrum block of 2
        const V t569 = t566 + t483;
        const V t570 = t566 - t483;
        // spectrum block of 29, multiplier 2
        const V t571 = x0r + t78;
        // real block of 2
        const V t572 = t52 + t8;
        const V t573 = t52 - t8;
        // real block of 2
        const V t574 = t40 + t16;
        const V t575 = t40 - t16;
        // real block of 2
        const V t576 = t4 + t12;
        const V t577 = t4 - t12;
        // real block of 2
        const V t578 = t32 + t0;
        const V t579 = t32 - t0;
        // real block of 2
        const V t580 = t36 + t48;
        const V t581 = t36 - t48;
        // real block of 2
        const V t582 = t20 + t24;
        const V t583 = t20 - t24;
        // real block of 2
        const V t584 = t28 + t44;
        const V t585 = t28 - t44;
        // real block of 7, multiplier 2
        const V t586 = t574 + t584;
        const V t587 = t574 - t584;
        const V t588 = t582 + t576;
        const V t589 = t582 - t576;
        const V t590 = t580 + t578;
        const V t591 = t580 - t578;
        const V t592 = t586 + t588;
        const V t593 = t592 + t590;
        const V t594 = t593 + t572;
        const V t595 = c[0] * t586;
        const V t596 = t572 - t595;
        const V t597 = c[1] * t588;
        const V t598 = t596 - t597;
        const V t599 = c[2] * t590;
        const V t600 = t598 + t599;
        const V t601 = c[3] * t587;
        const V t602 = c[4] * t589;
        const V t603 = c[5] * t591;
        const V t604 = t601 + t602;
        const V t605 = t604 + t603;
        const V t606 = c[1] * t586;
        const V t607 = t572 - t606;
        const V t608 = c[2] * t588;
        const V t609 = t607 + t608;
        const V t610 = c[0] * t590;
        const V t611 = t609 - t610;
        const V t612 = c[4] * t587;
        const V t613 = c[5] * t589;
        const V t614 = c[3] * t591;
        const V t615 = t612 + t613;
        const V t616 = t615 - t614;
        const V t617 = c[2] * t586;
        const V t618 = c[0] * t588;
        const V t619 = t617 - t618;
        const V t620 = c[1] * t590;
        const V t621 = t619 - t620;
        const V t622 = t621 + t572;
        const V t623 = c[5] * t587;
        const V t624 = c[3] * t589;
        const V t625 = c[4] * t591;
        const V t626 = t623 - t624;
        const V t627 = t626 - t625;
        // real block of 7, multiplier 2
        const V t628 = t575 + t585;
        const V t629 = t575 - t585;
        const V t630 = t583 + t577;
        const V t631 = t583 - t577;
        const V t632 = t581 + t579;
        const V t633 = t581 - t579;
        const V t634 = t628 + t630;
        const V t635 = t634 + t632;
        const V t636 = t635 + t573;
        const V t637 = c[0] * t628;
        const V t638 = t573 - t637;
        const V t639 = c[1] * t630;
        const V t640 = t638 - t639;
        const V t641 = c[2] * t632;
        const V t642 = t640 + t641;
        const V t643 = c[3] * t629;
        const V t644 = c[4] * t631;
        const V t645 = c[5] * t633;
        const V t646 = t643 + t644;
        const V t647 = t646 + t645;
        const V t648 = c[1] * t628;
        const V t649 = t573 - t648;
        const V t650 = c[2] * t630;
        const V t651 = t649 + t650;
        const V t652 = c[0] * t632;
        const V t653 = t651 - t652;
        const V t654 = c[4] * t629;
        const V t655 = c[5] * t631;
        const V t656 = c[3] * t633;
        const V t657 = t654 + t655;
        const V t658 = t657 - t656;
        const V t659 = c[2] * t628;
        const V t660 = c[0] * t630;
        const V t661 = t659 - t660;
        const V t662 = c[1] * t632;
        const V t663 = t661 - t662;
        const V t664 = t663 + t573;
        const V t665 = c[5] * t629;
        const V t666 = c[3] * t631;
        const V t667 = c[4] * t633;
        const V t668 = t665 - t666;
        const V t669 = t668 - t667;
        // real block of 7
        const V t670 = t41 - t29;
        const V t671 = t41 + t29;
        const V t672 = t21 + t5;
        const V t673 = t21 - t5;
        const V t674 = t37 + t33;
        const V t675 = t37 - t33;
        const V t676 = t670 + t672;
        const V t677 = t676 + t674;
        const V t678 = t677 - t53;
        const V t679 = c[2] * t670;
        const V t680 = c[0] * t672;
        const V t681 = t679 - t680;
        const V t682 = c[1] * t674;
        const V t683 = t681 - t682;
        const V t684 = t683 - t53;
        const V t685 = c[5] * t671;
        const V t686 = c[3] * t673;
        const V t687 = c[4] * t675;
        const V t688 = t686 + t687;
        const V t689 = t688 - t685;
        const V t690 = c[0] * t670;
        const V t691 = t53 + t690;
        const V t692 = c[1] * t672;
        const V t693 = t691 + t692;
        const V t694 = c[2] * t674;
        const V t695 = t694 - t693;
        const V t696 = c[3] * t671;
        const V t697 = c[4] * t673;
        const V t698 = c[5] * t675;
        const V t699 = t696 + t697;
        const V t700 = t699 + t698;
        const V t701 = c[1] * t670;
        const V t702 = t53 + t701;
        const V t703 = c[2] * t672;
        const V t704 = t703 - t702;
        const V t705 = c[0] * t674;
        const V t706 = t704 - t705;
        const V t707 = c[4] * t671;
        const V t708 = c[5] * t673;
        const V t709 = c[3] * t675;
        const V t710 = t709 - t707;
        const V t711 = t710 - t708;
        // real block of 7
        const V t712 = t25 - t1;
        const V t713 = t25 + t1;
        const V t714 = t13 + t45;
        const V t715 = t45 - t13;
        const V t716 = t17 + t9;
        const V t717 = t17 - t9;
        const V t718 = t712 - t714;
        const V t719 = t718 + t716;
        const V t720 = t719 - t49;
        const V t721 = c[2] * t712;
        const V t722 = c[0] * t714;
        const V t723 = t721 + t722;
        const V t724 = c[1] * t716;
        const V t725 = t723 - t724;
        const V t726 = t725 - t49;
        const V t727 = c[5] * t713;
        const V t728 = c[3] * t715;
        const V t729 = c[4] * t717;
        const V t730 = t728 + t729;
        const V t731 = t730 - t727;
        const V t732 = c[0] * t712;
        const V t733 = t49 + t732;
        const V t734 = c[1] * t714;
        const V t735 = t734 - t733;
        const V t736 = c[2] * t716;
        const V t737 = t735 + t736;
        const V t738 = c[3] * t713;
        const V t739 = c[4] * t715;
        const V t740 = c[5] * t717;
        const V t741 = t738 + t739;
        const V t742 = t741 + t740;
        const V t743 = c[1] * t712;
        const V t744 = t49 + t743;
        const V t745 = c[2] * t714;
        const V t746 = t744 + t745;
        const V t747 = c[0] * t716;
        const V t748 = t746 + t747;
        const V t749 = c[4] * t713;
        const V t750 = c[5] * t715;
        const V t751 = c[3] * t717;
        const V t752 = t751 - t749;
        const V t753 = t752 - t750;
        // skew block of 14
        const V t754 = c[0] * t753;
        const V t755 = c[3] * t748;
        const V t756 = t755 + t754;
        const V t757 = c[0] * t748;
        const V t758 = c[3] * t753;
        const V t759 = t757 - t758;
        // complex block of 2
        const V t760 = t706 - t756;
        const V t761 = t759 - t711;
        const V t762 = t706 + t756;
        const V t763 = t711 + t759;
        // skew block of 14
        const V t764 = c[2] * t742;
        const V t765 = c[5] * t737;
        const V t766 = t765 + t764;
        const V t767 = c[2] * t737;
        const V t768 = c[5] * t742;
        const V t769 = t768 - t767;
        // complex block of 2
        const V t770 = t695 + t766;
        const V t771 = t700 + t769;
        const V t772 = t695 - t766;
        const V t773 = t700 - t769;
        // skew block of 14
        const V t774 = c[1] * t731;
        const V t775 = c[4] * t726;
        const V t776 = t775 - t774;
        const V t777 = c[1] * t726;
        const V t778 = c[4] * t731;
        const V t779 = t778 + t777;
        // complex block of 2
        const V t780 = t684 + t776;
        const V t781 = t689 + t779;
        const V t782 = t684 - t776;
        const V t783 = t779 - t689;
        // spectrum block of 29, multiplier 2
        const V t784 = c[32] * t594;
        const V x29r = io.re(29);
        const V t785 = x29r - t784;
        const V t786 = c[6] * t761;
        const V t787 = c[7] * t760;
        const V t788 = t786 - t787;
        const V t789 = c[6] * t760;
        const V t790 = c[7] * t761;
        const V t791 = t790 + t789;
        const V t792 = c[8] * t669;
        const V t793 = c[9] * t664;
        const V t794 = t793 + t792;
        const V t795 = c[8] * t664;
        const V t796 = c[9] * t669;
        const V t797 = t795 - t796;
        const V t798 = c[10] * t771;
        const V t799 = c[11] * t770;
        const V t800 = t799 + t798;
        const V t801 = c[10] * t770;
        const V t802 = c[11] * t771;
        const V t803 = t802 - t801;
        const V t804 = c[12] * t605;
        const V t805 = c[13] * t600;
        const V t806 = t805 - t804;
        const V t807 = c[12] * t600;
        const V t808 = c[13] * t605;
        const V t809 = t808 + t807;
        const V t810 = c[14] * t781;
        const V t811 = c[15] * t780;
        const V t812 = t810 - t811;
        const V t813 = c[14] * t780;
        const V t814 = c[15] * t781;
        const V t815 = t814 + t813;
        const V t816 = c[16] * t658;
        const V t817 = c[17] * t653;
        const V t818 = t817 - t816;
        const V t819 = c[16] * t653;
        const V t820 = c[17] * t658;
        const V t821 = t820 + t819;
        const V t822 = c[18] * t720;
        const V t823 = c[19] * t678;
        const V t824 = t823 - t822;
        const V t825 = c[18] * t678;
        const V t826 = c[19] * t720;
        const V t827 = t826 + t825;
        const V t828 = c[20] * t616;
        const V t829 = c[21] * t611;
        const V t830 = t829 - t828;
        const V t831 = c[20] * t611;
        const V t832 = c[21] * t616;
        const V t833 = t832 + t831;
        const V t834 = c[22] * t783;
        const V t835 = c[23] * t782;
        const V t836 = t835 + t834;
        const V t837 = c[22] * t782;
        const V t838 = c[23] * t783;
        const V t839 = t837 - t838;
        const V t840 = c[24] * t647;
        const V t841 = c[25] * t642;
        const V t842 = t840 - t841;
        const V t843 = c[24] * t642;
        const V t844 = c[25] * t647;
        const V t845 = t844 + t843;
        const V t846 = c[26] * t773;
        const V t847 = c[27] * t772;
        const V t848 = t847 - t846;
        const V t849 = c[26] * t772;
        const V t850 = c[27] * t773;
        const V t851 = t850 + t849;
        const V t852 = c[28] * t627;
        const V t853 = c[29] * t622;
        const V t854 = t853 + t852;
        const V t855 = c[28] * t622;
        const V t856 = c[29] * t627;
        const V t857 = t856 - t855;
        const V t858 = c[30] * t763;
        const V t859 = c[31] * t762;
        const V t860 = t858 - t859;
        const V t861 = c[30] * t762;
        const V t862 = c[31] * t763;
        const V t863 = t862 + t861;
        const V t864 = c[33] * t636;
        // spectrum block of 7, multiplier 4
        const V t865 = t806 + t830;
        const V t866 = t865 + t854;
        const V t867 = t866 + t785;
        const V t868 = c[2] * t806;
        const V t869 = c[0] * t830;
        const V t870 = t868 - t869;
        const V t871 = c[1] * t854;
        const V t872 = t870 - t871;
        const V t873 = t872 + t785;
        const V t874 = c[5] * t809;
        const V t875 = c[3] * t833;
        const V t876 = t875 - t874;
        const V t877 = c[4] * t857;
        const V t878 = t876 + t877;
        const V t879 = t873 - t878;
        const V t880 = t873 + t878;
        const V t881 = c[0] * t806;
        const V t882 = t785 - t881;
        const V t883 = c[1] * t830;
        const V t884 = t882 - t883;
        const V t885 = c[2] * t854;
        const V t886 = t884 + t885;
        const V t887 = c[3] * t809;
        const V t888 = c[4] * t833;
        const V t889 = t887 + t888;
        const V t890 = c[5] * t857;
        const V t891 = t889 + t890;
        const V t892 = t886 + t891;
        const V t893 = t886 - t891;
        const V t894 = c[1] * t806;
        const V t895 = t785 - t894;
        const V t896 = c[2] * t830;
        const V t897 = t895 + t896;
        const V t898 = c[0] * t854;
        const V t899 = t897 - t898;
        const V t900 = c[4] * t809;
        const V t901 = c[5] * t833;
        const V t902 = t900 + t901;
        const V t903 = c[3] * t857;
        const V t904 = t903 - t902;
        const V t905 = t899 - t904;
        const V t906 = t899 + t904;
        // complex block of 7, multiplier 4
        const V t907 = t803 - t851;
        const V t908 = t848 + t800;
        const V t909 = t851 + t803;
        const V t910 = t848 - t800;
        const V t911 = t791 + t863;
        const V t912 = t788 + t860;
        const V t913 = t791 - t863;
        const V t914 = t788 - t860;
        const V t915 = t815 + t839;
        const V t916 = t812 + t836;
        const V t917 = t839 - t815;
        const V t918 = t812 - t836;
        const V t919 = t907 + t911;
        const V t920 = t919 - t915;
        const V t921 = t908 + t912;
        const V t922 = t921 + t916;
        const V t923 = t920 - t827;
        const V t924 = t922 + t824;
        const V t925 = c[2] * t907;
        const V t926 = c[0] * t911;
        const V t927 = t925 - t926;
        const V t928 = c[1] * t915;
        const V t929 = t927 + t928;
        const V t930 = t929 - t827;
        const V t931 = c[2] * t908;
        const V t932 = c[0] * t912;
        const V t933 = t931 - t932;
        const V t934 = c[1] * t916;
        const V t935 = t933 - t934;
        const V t936 = t935 + t824;
        const V t937 = c[5] * t909;
        const V t938 = c[3] * t913;
        const V t939 = t937 + t938;
        const V t940 = c[4] * t917;
        const V t941 = t939 + t940;
        const V t942 = c[5] * t910;
        const V t943 = c[3] * t914;
        const V t944 = t942 - t943;
        const V t945 = c[4] * t918;
        const V t946 = t944 - t945;
        const V t947 = t930 + t946;
        const V t948 = t936 + t941;
        const V t949 = t930 - t946;
        const V t950 = t936 - t941;
        const V t951 = c[0] * t907;
        const V t952 = t827 + t951;
        const V t953 = c[1] * t911;
        const V t954 = t952 + t953;
        const V t955 = c[2] * t915;
        const V t956 = t954 + t955;
        const V t957 = c[0] * t908;
        const V t958 = t824 - t957;
        const V t959 = c[1] * t912;
        const V t960 = t958 - t959;
        const V t961 = c[2] * t916;
        const V t962 = t960 + t961;
        const V t963 = c[3] * t909;
        const V t964 = c[4] * t913;
        const V t965 = t964 - t963;
        const V t966 = c[5] * t917;
        const V t967 = t965 + t966;
        const V t968 = c[3] * t910;
        const V t969 = c[4] * t914;
        const V t970 = t968 + t969;
        const V t971 = c[5] * t918;
        const V t972 = t970 + t971;
        const V t973 = t972 - t956;
        const V t974 = t962 - t967;
        const V t975 = t956 + t972;
        const V t976 = t962 + t967;
        const V t977 = c[1] * t907;
        const V t978 = t827 + t977;
        const V t979 = c[2] * t911;
        const V t980 = t979 - t978;
        const V t981 = c[0] * t915;
        const V t982 = t980 + t981;
        const V t983 = c[1] * t908;
        const V t984 = t824 - t983;
        const V t985 = c[2] * t912;
        const V t986 = t984 + t985;
        const V t987 = c[0] * t916;
        const V t988 = t986 - t987;
        const V t989 = c[4] * t909;
        const V t990 = c[5] * t913;
        const V t991 = t990 - t989;
        const V t992 = c[3] * t917;
        const V t993 = t991 - t992;
        const V t994 = c[4] * t910;
        const V t995 = c[5] * t914;
        const V t996 = t994 + t995;
        const V t997 = c[3] * t918;
        const V t998 = t996 - t997;
        const V t999 = t982 + t998;
        const V t1000 = t988 - t993;
        const V t1001 = t982 - t998;
        const V t1002 = t988 + t993;
        // spectrum block of 7, multiplier 4
        const V t1003 = t842 + t818;
        const V t1004 = t1003 + t794;
        const V t1005 = t1004 - t864;
        const V t1006 = c[2] * t842;
        const V t1007 = c[0] * t818;
        const V t1008 = t1006 - t1007;
        const V t1009 = c[1] * t794;
        const V t1010 = t1008 - t1009;
        const V t1011 = t1010 - t864;
        const V t1012 = c[5] * t845;
        const V t1013 = c[3] * t821;
        const V t1014 = t1012 + t1013;
        const V t1015 = c[4] * t797;
        const V t1016 = t1014 - t1015;
        const V t1017 = t1011 - t1016;
        const V t1018 = t1011 + t1016;
        const V t1019 = c[0] * t842;
        const V t1020 = t864 + t1019;
        const V t1021 = c[1] * t818;
        const V t1022 = t1020 + t1021;
        const V t1023 = c[2] * t794;
        const V t1024 = t1023 - t1022;
        const V t1025 = c[3] * t845;
        const V t1026 = c[4] * t821;
        const V t1027 = t1025 - t1026;
        const V t1028 = c[5] * t797;
        const V t1029 = t1027 + t1028;
        const V t1030 = t1024 - t1029;
        const V t1031 = t1024 + t1029;
        const V t1032 = c[1] * t842;
        const V t1033 = t864 + t1032;
        const V t1034 = c[2] * t818;
        const V t1035 = t1034 - t1033;
        const V t1036 = c[0] * t794;
        const V t1037 = t1035 - t1036;
        const V t1038 = c[4] * t845;
        const V t1039 = c[5] * t821;
        const V t1040 = t1038 - t1039;
        const V t1041 = c[3] * t797;
        const V t1042 = t1040 - t1041;
        const V t1043 = t1037 - t1042;
        const V t1044 = t1037 + t1042;
        // spectrum block of 2
        const V t1045 = t867 + t1005;
        const V t1046 = t867 - t1005;
        // spectrum block of 2
        const V t1047 = t1045 + t924;
        const V t1048 = t1045 - t924;
        // spectrum block of 2
        const V t1049 = t1046 + t923;
        const V t1050 = t1046 - t923;
        // spectrum block of 2
        const V t1051 = t906 + t1044;
        const V t1052 = t906 - t1044;
        // spectrum block of 2
        const V t1053 = t1051 + t1002;
        const V t1054 = t1051 - t1002;
        // spectrum block of 2
        const V t1055 = t1052 + t1001;
        const V t1056 = t1052 - t1001;
        // spectrum block of 2
        const V t1057 = t879 + t1017;
        const V t1058 = t879 - t1017;
        // spectrum block of 2
        const V t1059 = t1057 + t948;
        const V t1060 = t1057 - t948;
        // spectrum block of 2
        const V t1061 = t1058 + t947;
        const V t1062 = t1058 - t947;
        // spectrum block of 2
        const V t1063 = t893 + t1031;
        const V t1064 = t893 - t1031;
        // spectrum block of 2
        const V t1065 = t1063 + t976;
        const V t1066 = t1063 - t976;
        // spectrum block of 2
        const V t1067 = t1064 - t975;
        const V t1068 = t1064 + t975;
        // spectrum block of 2
        const V t1069 = t892 + t1030;
        const V t1070 = t892 - t1030;
        // spectrum block of 2
        const V t1071 = t1069 + t974;
        const V t1072 = t1069 - t974;
        // spectrum block of 2
        const V t1073 = t1070 + t973;
        const V t1074 = t1070 - t973;
        // spectrum block of 2
        const V t1075 = t880 + t1018;
        const V t1076 = t880 - t1018;
        // spectrum block of 2
        const V t1077 = t1075 + t950;
        const V t1078 = t1075 - t950;
        // spectrum block of 2
        const V t1079 = t1076 + t949;
        const V t1080 = t1076 - t949;
        // spectrum block of 2
        const V t1081 = t905 + t1043;
        const V t1082 = t905 - t1043;
        // spectrum block of 2
        const V t1083 = t1081 + t1000;
        const V t1084 = t1081 - t1000;
        // spectrum block of 2
        const V t1085 = t1082 + t999;
        const V t1086 = t1082 - t999;
        // spectrum block of 29, multiplier 2
        const V t1087 = x29r + t594;
        // spectrum block of 2
        const V t1088 = t571 + t1087;
        io.out(0, t1088);
        const V t1089 = t571 - t1087;
        io.out(29, t1089);
        // spectrum block of 2
        const V t1090 = t531 + t1047;
        io.out(2, t1090);
        const V t1091 = t531 - t1047;
        io.out(31, t1091);
        // spectrum block of 2
        const V t1092 = t563 + t1079;
        io.out(4, t1092);
        const V t1093 = t563 - t1079;
        io.out(33, t1093);
        // spectrum block of 2
        const V t1094 = t557 + t1073;
        io.out(6, t1094);
        const V t1095 = t557 - t1073;
        io.out(35, t1095);
        // spectrum block of 2
        const V t1096 = t550 + t1066;
        io.out(8, t1096);
        const V t1097 = t550 - t1066;
        io.out(37, t1097);
        // spectrum block of 2
        const V t1098 = t562 + t1078;
        io.out(10, t1098);
        const V t1099 = t562 - t1078;
        io.out(39, t1099);
        // spectrum block of 2
        const V t1100 = t544 + t1060;
        io.out(12, t1100);
        const V t1101 = t544 - t1060;
        io.out(41, t1101);
        // spectrum block of 2
        const V t1102 = t555 + t1071;
        io.out(14, t1102);
        const V t1103 = t555 - t1071;
        io.out(43, t1103);
        // spectrum block of 2
        const V t1104 = t540 + t1056;
        io.out(16, t1104);
        const V t1105 = t540 - t1056;
        io.out(45, t1105);
        // spectrum block of 2
        const V t1106 = t538 + t1054;
        io.out(18, t1106);
        const V t1107 = t538 - t1054;
        io.out(47, t1107);
        // spectrum block of 2
        const V t1108 = t552 + t1068;
        io.out(20, t1108);
        const V t1109 = t552 - t1068;
        io.out(49, t1109);
        // spectrum block of 2
        const V t1110 = t569 + t1085;
        io.out(22, t1110);
        const V t1111 = t569 - t1085;
        io.out(51, t1111);
        // spectrum block of 2
        const V t1112 = t534 + t1050;
        io.out(24, t1112);
        const V t1113 = t534 - t1050;
        io.out(53, t1113);
        // spectrum block of 2
        const V t1114 = t568 + t1084;
        io.out(26, t1114);
        const V t1115 = t568 - t1084;
        io.out(55, t1115);
        // spectrum block of 2
        const V t1116 = t545 + t1061;
        io.out(28, t1116);
        const V t1117 = t545 - t1061;
        io.out(57, t1117);
        // spectrum block of 2
        const V t1118 = t546 + t1062;
        io.out(30, t1118);
        const V t1119 = t546 - t1062;
        io.out(1, t1119);
        // spectrum block of 2
        const V t1120 = t567 + t1083;
        io.out(32, t1120);
        const V t1121 = t567 - t1083;
        io.out(3, t1121);
        // spectrum block of 2
        const V t1122 = t533 + t1049;
        io.out(34, t1122);
        const V t1123 = t533 - t1049;
        io.out(5, t1123);
        // spectrum block of 2
        const V t1124 = t570 + t1086;
        io.out(36, t1124);
        const V t1125 = t570 - t1086;
        io.out(7, t1125);
        // spectrum block of 2
        const V t1126 = t551 + t1067;
        io.out(38, t1126);
        const V t1127 = t551 - t1067;
        io.out(9, t1127);
        // spectrum block of 2
        const V t1128 = t537 + t1053;
        io.out(40, t1128);
        const V t1129 = t537 - t1053;
        io.out(11, t1129);
        // spectrum block of 2
        const V t1130 = t539 + t1055;
        io.out(42, t1130);
        const V t1131 = t539 - t1055;
        io.out(13, t1131);
        // spectrum block of 2
        const V t1132 = t556 + t1072;
        io.out(44, t1132);
        const V t1133 = t556 - t1072;
        io.out(15, t1133);
        // spectrum block of 2
        const V t1134 = t543 + t1059;
        io.out(46, t1134);
        const V t1135 = t543 - t1059;
        io.out(17, t1135);
        // spectrum block of 2
        const V t1136 = t561 + t1077;
        io.out(48, t1136);
        const V t1137 = t561 - t1077;
        io.out(19, t1137);
        // spectrum block of 2
        const V t1138 = t549 + t1065;
        io.out(50, t1138);
        const V t1139 = t549 - t1065;
        io.out(21, t1139);
        // spectrum block of 2
        const V t1140 = t558 + t1074;
        io.out(52, t1140);
        const V t1141 = t558 - t1074;
        io.out(23, t1141);
        // spectrum block of 2
        const V t1142 = t564 + t1080;
        io.out(54, t1142);
        const V t1143 = t564 - t1080;
        io.out(25, t1143);
        // spectrum block of 2
        const V t1144 = t532 + t1048;
        io.out(56, t1144);
        const V t1145 = t532 - t1048;
        io.out(27, t1145);
    }
};

}  // namespace zulg
