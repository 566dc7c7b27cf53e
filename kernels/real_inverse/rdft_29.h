// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 29.
// Inverse DFT to 29 real points, Rader 7, 4.
// 152 additions, 154 subtractions, 238 multiplications (267 with `scale`); 35 constants; 42 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<29> {
    static constexpr int steps = 573;  // with `scale`
    static constexpr double inverseRoot = 0.18569533817705186;  // 1/sqrt(29), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 2/7
        0.9009688679024191,  // c[1]: -cos 2 pi 10/7
        0.6234898018587335,  // c[2]: cos 2 pi 8/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 10/7
        0.7818314824680298,  // c[5]: sin 2 pi 8/7
        0.2768145884649087,  // c[6]: -P[1] of 29
        0.2670821358430261,  // c[7]: -Q[1] of 29
        0.32142566997698113,  // c[8]: Q[2] of 29
        0.21129297752958617,  // c[9]: P[2] of 29
        0.29302504444220384,  // c[10]: -P[3] of 29
        0.2491897008367598,  // c[11]: Q[3] of 29
        0.19919633623825483,  // c[12]: Q[4] of 29
        0.3290592701972177,  // c[13]: P[4] of 29
        0.26862162181749166,  // c[14]: -P[5] of 29
        0.27532091814028564,  // c[15]: -Q[5] of 29
        0.35927022128602587,  // c[16]: Q[6] of 29
        0.13741940099767344,  // c[17]: P[6] of 29
        0.07274108340629196,  // c[18]: P[7] of 29
        0.3777140697119294,  // c[19]: Q[7] of 29
        0.21267702351981235,  // c[20]: Q[8] of 29
        0.3205115713047231,  // c[21]: -P[8] of 29
        0.035220206650882144,  // c[22]: -P[9] of 29
        0.38303879792644835,  // c[23]: -Q[9] of 29
        0.0825185747421179,  // c[24]: -Q[10] of 29
        0.37569917287106036,  // c[25]: P[10] of 29
        0.25511870438911255,  // c[26]: P[11] of 29
        0.28787780453569184,  // c[27]: -Q[11] of 29
        0.37467556794599116,  // c[28]: Q[12] of 29
        0.0870482765930398,  // c[29]: P[12] of 29
        0.0999373031094614,  // c[30]: P[13] of 29
        0.3714454456857387,  // c[31]: Q[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: beta of 29
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
        // real block of 2
        const V t28 = t0 + t22;
        const V t29 = t0 - t22;
        // real block of 2
        const V t30 = t6 + t18;
        const V t31 = t6 - t18;
        // real block of 2
        const V t32 = t24 + t20;
        const V t33 = t24 - t20;
        // real block of 2
        const V t34 = t10 + t26;
        const V t35 = t10 - t26;
        // real block of 2
        const V t36 = t8 + t2;
        const V t37 = t8 - t2;
        // real block of 2
        const V t38 = t16 + t14;
        const V t39 = t16 - t14;
        // real block of 2
        const V t40 = t12 + t4;
        const V t41 = t12 - t4;
        // real block of 7, multiplier 2
        const V t42 = t30 + t40;
        const V t43 = t30 - t40;
        const V t44 = t38 + t32;
        const V t45 = t38 - t32;
        const V t46 = t36 + t34;
        const V t47 = t36 - t34;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V t50 = t49 + t28;
        const V t51 = c[0] * t42;
        const V t52 = t28 - t51;
        const V t53 = c[1] * t44;
        const V t54 = t52 - t53;
        const V t55 = c[2] * t46;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t57 + t58;
        const V t61 = t60 + t59;
        const V t62 = c[1] * t42;
        const V t63 = t28 - t62;
        const V t64 = c[2] * t44;
        const V t65 = t63 + t64;
        const V t66 = c[0] * t46;
        const V t67 = t65 - t66;
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t68 + t69;
        const V t72 = t71 - t70;
        const V t73 = c[2] * t42;
        const V t74 = c[0] * t44;
        const V t75 = t73 - t74;
        const V t76 = c[1] * t46;
        const V t77 = t75 - t76;
        const V t78 = t77 + t28;
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t79 - t80;
        const V t83 = t82 - t81;
        // real block of 7, multiplier 2
        const V t84 = t31 + t41;
        const V t85 = t31 - t41;
        const V t86 = t39 + t33;
        const V t87 = t39 - t33;
        const V t88 = t37 + t35;
        const V t89 = t37 - t35;
        const V t90 = t84 + t86;
        const V t91 = t90 + t88;
        const V t92 = t91 + t29;
        const V t93 = c[0] * t84;
        const V t94 = t29 - t93;
        const V t95 = c[1] * t86;
        const V t96 = t94 - t95;
        const V t97 = c[2] * t88;
        const V t98 = t96 + t97;
        const V t99 = c[3] * t85;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t89;
        const V t102 = t99 + t100;
        const V t103 = t102 + t101;
        const V t104 = c[1] * t84;
        const V t105 = t29 - t104;
        const V t106 = c[2] * t86;
        const V t107 = t105 + t106;
        const V t108 = c[0] * t88;
        const V t109 = t107 - t108;
        const V t110 = c[4] * t85;
        const V t111 = c[5] * t87;
        const V t112 = c[3] * t89;
        const V t113 = t110 + t111;
        const V t114 = t113 - t112;
        const V t115 = c[2] * t84;
        const V t116 = c[0] * t86;
        const V t117 = t115 - t116;
        const V t118 = c[1] * t88;
        const V t119 = t117 - t118;
        const V t120 = t119 + t29;
        const V t121 = c[5] * t85;
        const V t122 = c[3] * t87;
        const V t123 = c[4] * t89;
        const V t124 = t121 - t122;
        const V t125 = t124 - t123;
        // real block of 7
        const V t126 = t13 - t7;
        const V t127 = t7 + t13;
        const V t128 = t17 + t25;
        const V t129 = t25 - t17;
        const V t130 = t9 + t11;
        const V t131 = t11 - t9;
        const V t132 = t126 - t128;
        const V t133 = t132 - t130;
        const V t134 = t133 + t1;
        const V t135 = c[2] * t126;
        const V t136 = c[0] * t128;
        const V t137 = t135 + t136;
        const V t138 = c[1] * t130;
        const V t139 = t137 + t138;
        const V t140 = t139 + t1;
        const V t141 = c[5] * t127;
        const V t142 = c[3] * t129;
        const V t143 = c[4] * t131;
        const V t144 = t141 + t142;
        const V t145 = t144 + t143;
        const V t146 = c[0] * t126;
        const V t147 = t1 - t146;
        const V t148 = c[1] * t128;
        const V t149 = t147 + t148;
        const V t150 = c[2] * t130;
        const V t151 = t149 - t150;
        const V t152 = c[3] * t127;
        const V t153 = c[4] * t129;
        const V t154 = c[5] * t131;
        const V t155 = t152 - t153;
        const V t156 = t155 - t154;
        const V t157 = c[1] * t126;
        const V t158 = t1 - t157;
        const V t159 = c[2] * t128;
        const V t160 = t158 - t159;
        const V t161 = c[0] * t130;
        const V t162 = t160 + t161;
        const V t163 = c[4] * t127;
        const V t164 = c[5] * t129;
        const V t165 = c[3] * t131;
        const V t166 = t163 + t165;
        const V t167 = t166 - t164;
        // real block of 7
        const V t168 = t27 - t15;
        const V t169 = t15 + t27;
        const V t170 = t21 + t5;
        const V t171 = t21 - t5;
        const V t172 = t19 + t23;
        const V t173 = t23 - t19;
        const V t174 = t168 + t170;
        const V t175 = t174 - t172;
        const V t176 = t175 + t3;
        const V t177 = c[2] * t168;
        const V t178 = c[0] * t170;
        const V t179 = t177 - t178;
        const V t180 = c[1] * t172;
        const V t181 = t179 + t180;
        const V t182 = t181 + t3;
        const V t183 = c[5] * t169;
        const V t184 = c[3] * t171;
        const V t185 = c[4] * t173;
        const V t186 = t183 + t184;
        const V t187 = t186 + t185;
        const V t188 = c[0] * t168;
        const V t189 = t3 - t188;
        const V t190 = c[1] * t170;
        const V t191 = t189 - t190;
        const V t192 = c[2] * t172;
        const V t193 = t191 - t192;
        const V t194 = c[3] * t169;
        const V t195 = c[4] * t171;
        const V t196 = c[5] * t173;
        const V t197 = t194 - t195;
        const V t198 = t197 - t196;
        const V t199 = c[1] * t168;
        const V t200 = t3 - t199;
        const V t201 = c[2] * t170;
        const V t202 = t200 + t201;
        const V t203 = c[0] * t172;
        const V t204 = t202 + t203;
        const V t205 = c[4] * t169;
        const V t206 = c[5] * t171;
        const V t207 = c[3] * t173;
        const V t208 = t205 + t207;
        const V t209 = t208 - t206;
        // skew block of 14
        const V t210 = c[0] * t209;
        const V t211 = c[3] * t204;
        const V t212 = t211 - t210;
        const V t213 = c[0] * t204;
        const V t214 = c[3] * t209;
        const V t215 = t214 + t213;
        // complex block of 2
        const V t216 = t162 + t212;
        const V t217 = t167 + t215;
        const V t218 = t162 - t212;
        const V t219 = t215 - t167;
        // skew block of 14
        const V t220 = c[2] * t198;
        const V t221 = c[5] * t193;
        const V t222 = t221 - t220;
        const V t223 = c[2] * t193;
        const V t224 = c[5] * t198;
        const V t225 = t224 + t223;
        // complex block of 2
        const V t226 = t151 + t222;
        const V t227 = t156 + t225;
        const V t228 = t151 - t222;
        const V t229 = t225 - t156;
        // skew block of 14
        const V t230 = c[1] * t187;
        const V t231 = c[4] * t182;
        const V t232 = t231 - t230;
        const V t233 = c[1] * t182;
        const V t234 = c[4] * t187;
        const V t235 = t234 + t233;
        // complex block of 2
        const V t236 = t140 + t232;
        const V t237 = t145 + t235;
        const V t238 = t140 - t232;
        const V t239 = t235 - t145;
        // spectrum block of 29
        const V t240 = c[32] * t50;
        const V x0r = io.re(0);
        const V t241 = x0r - t240;
        const V t242 = c[6] * t217;
        const V t243 = c[7] * t216;
        const V t244 = t243 + t242;
        const V t245 = c[6] * t216;
        const V t246 = c[7] * t217;
        const V t247 = t246 - t245;
        const V t248 = c[8] * t125;
        const V t249 = c[9] * t120;
        const V t250 = t249 + t248;
        const V t251 = c[8] * t120;
        const V t252 = c[9] * t125;
        const V t253 = t251 - t252;
        const V t254 = c[10] * t227;
        const V t255 = c[11] * t226;
        const V t256 = t255 - t254;
        const V t257 = c[10] * t226;
        const V t258 = c[11] * t227;
        const V t259 = t258 + t257;
        const V t260 = c[12] * t61;
        const V t261 = c[13] * t56;
        const V t262 = t261 + t260;
        const V t263 = c[12] * t56;
        const V t264 = c[13] * t61;
        const V t265 = t263 - t264;
        const V t266 = c[14] * t237;
        const V t267 = c[15] * t236;
        const V t268 = t267 + t266;
        const V t269 = c[14] * t236;
        const V t270 = c[15] * t237;
        const V t271 = t270 - t269;
        const V t272 = c[16] * t114;
        const V t273 = c[17] * t109;
        const V t274 = t273 + t272;
        const V t275 = c[16] * t109;
        const V t276 = c[17] * t114;
        const V t277 = t275 - t276;
        const V t278 = c[18] * t176;
        const V t279 = c[19] * t134;
        const V t280 = t279 + t278;
        const V t281 = c[18] * t134;
        const V t282 = c[19] * t176;
        const V t283 = t281 - t282;
        const V t284 = c[20] * t72;
        const V t285 = c[21] * t67;
        const V t286 = t285 + t284;
        const V t287 = c[20] * t67;
        const V t288 = c[21] * t72;
        const V t289 = t287 - t288;
        const V t290 = c[22] * t239;
        const V t291 = c[23] * t238;
        const V t292 = t291 + t290;
        const V t293 = c[22] * t238;
        const V t294 = c[23] * t239;
        const V t295 = t294 - t293;
        const V t296 = c[24] * t103;
        const V t297 = c[25] * t98;
        const V t298 = t297 + t296;
        const V t299 = c[24] * t98;
        const V t300 = c[25] * t103;
        const V t301 = t300 - t299;
        const V t302 = c[26] * t229;
        const V t303 = c[27] * t228;
        const V t304 = t302 - t303;
        const V t305 = c[26] * t228;
        const V t306 = c[27] * t229;
        const V t307 = t306 + t305;
        const V t308 = c[28] * t83;
        const V t309 = c[29] * t78;
        const V t310 = t309 - t308;
        const V t311 = c[28] * t78;
        const V t312 = c[29] * t83;
        const V t313 = t312 + t311;
        const V t314 = c[30] * t219;
        const V t315 = c[31] * t218;
        const V t316 = t315 + t314;
        const V t317 = c[30] * t218;
        const V t318 = c[31] * t219;
        const V t319 = t317 - t318;
        const V t320 = c[33] * t92;
        // spectrum block of 7, multiplier 4
        const V t321 = t262 - t286;
        const V t322 = t321 + t310;
        const V t323 = t322 + t241;
        const V t324 = c[2] * t262;
        const V t325 = c[0] * t286;
        const V t326 = t324 + t325;
        const V t327 = c[1] * t310;
        const V t328 = t326 - t327;
        const V t329 = t328 + t241;
        const V t330 = c[5] * t265;
        const V t331 = c[3] * t289;
        const V t332 = t330 + t331;
        const V t333 = c[4] * t313;
        const V t334 = t332 + t333;
        const V t335 = t329 - t334;
        const V t336 = t329 + t334;
        const V t337 = c[0] * t262;
        const V t338 = t241 - t337;
        const V t339 = c[1] * t286;
        const V t340 = t338 + t339;
        const V t341 = c[2] * t310;
        const V t342 = t340 + t341;
        const V t343 = c[3] * t265;
        const V t344 = c[4] * t289;
        const V t345 = t343 - t344;
        const V t346 = c[5] * t313;
        const V t347 = t345 - t346;
        const V t348 = t342 - t347;
        const V t349 = t342 + t347;
        const V t350 = c[1] * t262;
        const V t351 = t241 - t350;
        const V t352 = c[2] * t286;
        const V t353 = t351 - t352;
        const V t354 = c[0] * t310;
        const V t355 = t353 - t354;
        const V t356 = c[4] * t265;
        const V t357 = c[5] * t289;
        const V t358 = t356 - t357;
        const V t359 = c[3] * t313;
        const V t360 = t358 + t359;
        const V t361 = t355 - t360;
        const V t362 = t355 + t360;
        // complex block of 7, multiplier 4
        const V t363 = t307 - t259;
        const V t364 = t304 + t256;
        const V t365 = t307 + t259;
        const V t366 = t304 - t256;
        const V t367 = t247 + t319;
        const V t368 = t316 - t244;
        const V t369 = t319 - t247;
        const V t370 = t244 + t316;
        const V t371 = t271 + t295;
        const V t372 = t268 + t292;
        const V t373 = t295 - t271;
        const V t374 = t292 - t268;
        const V t375 = t363 - t367;
        const V t376 = t375 - t371;
        const V t377 = t364 + t368;
        const V t378 = t377 - t372;
        const V t379 = t376 + t283;
        const V t380 = t378 + t280;
        const V t381 = c[2] * t363;
        const V t382 = c[0] * t367;
        const V t383 = t381 + t382;
        const V t384 = c[1] * t371;
        const V t385 = t383 + t384;
        const V t386 = t385 + t283;
        const V t387 = c[2] * t364;
        const V t388 = c[0] * t368;
        const V t389 = t387 - t388;
        const V t390 = c[1] * t372;
        const V t391 = t389 + t390;
        const V t392 = t391 + t280;
        const V t393 = c[5] * t365;
        const V t394 = c[3] * t369;
        const V t395 = t393 - t394;
        const V t396 = c[4] * t373;
        const V t397 = t395 - t396;
        const V t398 = c[5] * t366;
        const V t399 = c[3] * t370;
        const V t400 = t398 + t399;
        const V t401 = c[4] * t374;
        const V t402 = t400 - t401;
        const V t403 = t386 + t402;
        const V t404 = t392 - t397;
        const V t405 = t386 - t402;
        const V t406 = t392 + t397;
        const V t407 = c[0] * t363;
        const V t408 = t283 - t407;
        const V t409 = c[1] * t367;
        const V t410 = t408 + t409;
        const V t411 = c[2] * t371;
        const V t412 = t410 - t411;
        const V t413 = c[0] * t364;
        const V t414 = t280 - t413;
        const V t415 = c[1] * t368;
        const V t416 = t414 - t415;
        const V t417 = c[2] * t372;
        const V t418 = t416 - t417;
        const V t419 = c[3] * t365;
        const V t420 = c[4] * t369;
        const V t421 = t419 + t420;
        const V t422 = c[5] * t373;
        const V t423 = t421 + t422;
        const V t424 = c[3] * t366;
        const V t425 = c[4] * t370;
        const V t426 = t424 - t425;
        const V t427 = c[5] * t374;
        const V t428 = t426 + t427;
        const V t429 = t412 + t428;
        const V t430 = t418 - t423;
        const V t431 = t412 - t428;
        const V t432 = t418 + t423;
        const V t433 = c[1] * t363;
        const V t434 = t283 - t433;
        const V t435 = c[2] * t367;
        const V t436 = t434 - t435;
        const V t437 = c[0] * t371;
        const V t438 = t436 + t437;
        const V t439 = c[1] * t364;
        const V t440 = t280 - t439;
        const V t441 = c[2] * t368;
        const V t442 = t440 + t441;
        const V t443 = c[0] * t372;
        const V t444 = t442 + t443;
        const V t445 = c[4] * t365;
        const V t446 = c[5] * t369;
        const V t447 = t445 + t446;
        const V t448 = c[3] * t373;
        const V t449 = t447 - t448;
        const V t450 = c[4] * t366;
        const V t451 = c[5] * t370;
        const V t452 = t450 - t451;
        const V t453 = c[3] * t374;
        const V t454 = t452 - t453;
        const V t455 = t438 + t454;
        const V t456 = t444 - t449;
        const V t457 = t438 - t454;
        const V t458 = t444 + t449;
        // spectrum block of 7, multiplier 4
        const V t459 = t298 + t274;
        const V t460 = t459 + t250;
        const V t461 = t460 + t320;
        const V t462 = c[2] * t298;
        const V t463 = c[0] * t274;
        const V t464 = t462 - t463;
        const V t465 = c[1] * t250;
        const V t466 = t464 - t465;
        const V t467 = t466 + t320;
        const V t468 = c[5] * t301;
        const V t469 = c[3] * t277;
        const V t470 = t468 + t469;
        const V t471 = c[4] * t253;
        const V t472 = t470 + t471;
        const V t473 = t467 + t472;
        const V t474 = t467 - t472;
        const V t475 = c[0] * t298;
        const V t476 = t320 - t475;
        const V t477 = c[1] * t274;
        const V t478 = t476 - t477;
        const V t479 = c[2] * t250;
        const V t480 = t478 + t479;
        const V t481 = c[3] * t301;
        const V t482 = c[4] * t277;
        const V t483 = t482 - t481;
        const V t484 = c[5] * t253;
        const V t485 = t483 + t484;
        const V t486 = t480 - t485;
        const V t487 = t480 + t485;
        const V t488 = c[1] * t298;
        const V t489 = t320 - t488;
        const V t490 = c[2] * t274;
        const V t491 = t489 + t490;
        const V t492 = c[0] * t250;
        const V t493 = t491 - t492;
        const V t494 = c[4] * t301;
        const V t495 = c[5] * t277;
        const V t496 = t495 - t494;
        const V t497 = c[3] * t253;
        const V t498 = t496 - t497;
        const V t499 = t493 - t498;
        const V t500 = t493 + t498;
        // spectrum block of 2
        const V t501 = t323 + t461;
        const V t502 = t323 - t461;
        // spectrum block of 2
        const V t503 = t501 + t380;
        io.out(1, t503);
        const V t504 = t501 - t380;
        io.out(28, t504);
        // spectrum block of 2
        const V t505 = t502 + t379;
        io.out(17, t505);
        const V t506 = t502 - t379;
        io.out(12, t506);
        // spectrum block of 2
        const V t507 = t362 + t500;
        const V t508 = t362 - t500;
        // spectrum block of 2
        const V t509 = t507 + t458;
        io.out(20, t509);
        const V t510 = t507 - t458;
        io.out(9, t510);
        // spectrum block of 2
        const V t511 = t508 + t457;
        io.out(21, t511);
        const V t512 = t508 - t457;
        io.out(8, t512);
        // spectrum block of 2
        const V t513 = t335 + t473;
        const V t514 = t335 - t473;
        // spectrum block of 2
        const V t515 = t513 + t404;
        io.out(23, t515);
        const V t516 = t513 - t404;
        io.out(6, t516);
        // spectrum block of 2
        const V t517 = t514 + t403;
        io.out(14, t517);
        const V t518 = t514 - t403;
        io.out(15, t518);
        // spectrum block of 2
        const V t519 = t349 + t487;
        const V t520 = t349 - t487;
        // spectrum block of 2
        const V t521 = t519 + t432;
        io.out(25, t521);
        const V t522 = t519 - t432;
        io.out(4, t522);
        // spectrum block of 2
        const V t523 = t520 + t431;
        io.out(19, t523);
        const V t524 = t520 - t431;
        io.out(10, t524);
        // spectrum block of 2
        const V t525 = t348 + t486;
        const V t526 = t348 - t486;
        // spectrum block of 2
        const V t527 = t525 + t430;
        io.out(7, t527);
        const V t528 = t525 - t430;
        io.out(22, t528);
        // spectrum block of 2
        const V t529 = t526 + t429;
        io.out(3, t529);
        const V t530 = t526 - t429;
        io.out(26, t530);
        // spectrum block of 2
        const V t531 = t336 + t474;
        const V t532 = t336 - t474;
        // spectrum block of 2
        const V t533 = t531 + t406;
        io.out(24, t533);
        const V t534 = t531 - t406;
        io.out(5, t534);
        // spectrum block of 2
        const V t535 = t532 + t405;
        io.out(2, t535);
        const V t536 = t532 - t405;
        io.out(27, t536);
        // spectrum block of 2
        const V t537 = t361 + t499;
        const V t538 = t361 - t499;
        // spectrum block of 2
        const V t539 = t537 + t456;
        io.out(16, t539);
        const V t540 = t537 - t456;
        io.out(13, t540);
        // spectrum block of 2
        const V t541 = t538 + t455;
        io.out(11, t541);
        const V t542 = t538 - t455;
        io.out(18, t542);
        // spectrum block of 29
        const V t543 = x0r + t50;
        io.out(0, t543);
    }
};

}  // namespace zulg
