// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 23.
// Inverse DFT to 23 real points, Rader 11, 2.
// 141 additions, 143 subtractions, 264 multiplications (287 with `scale`); 33 constants; 35 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<23> {
    static constexpr int steps = 571;  // with `scale`
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
    static constexpr double constants[] = {
        0.8412535328311812,  // c[0]: cos 2 pi 1/11
        0.41541501300188644,  // c[1]: cos 2 pi 9/11
        0.14231483827328514,  // c[2]: -cos 2 pi 3/11
        0.6548607339452851,  // c[3]: -cos 2 pi 4/11
        0.9594929736144974,  // c[4]: -cos 2 pi 6/11
        0.5406408174555976,  // c[5]: sin 2 pi 1/11
        0.9096319953545183,  // c[6]: -sin 2 pi 9/11
        0.9898214418809327,  // c[7]: sin 2 pi 3/11
        0.7557495743542583,  // c[8]: sin 2 pi 4/11
        0.28173255684142967,  // c[9]: -sin 2 pi 6/11
        0.06955203016683642,  // c[10]: -P[1] of 23
        0.4304011613922187,  // c[11]: -Q[1] of 23
        0.43370463199482034,  // c[12]: Q[2] of 23
        0.04453017869194607,  // c[13]: P[2] of 23
        0.27718353274096963,  // c[14]: -P[3] of 23
        0.33652924658242556,  // c[15]: Q[3] of 23
        0.22644695169903334,  // c[16]: Q[4] of 23
        0.37256465572342584,  // c[17]: P[4] of 23
        0.43594373606982356,  // c[18]: -P[5] of 23
        0.005975249750696167,  // c[19]: Q[5] of 23
        0.4029766924691319,  // c[20]: Q[6] of 23
        0.16641042622004737,  // c[21]: P[6] of 23
        0.17583093692664623,  // c[22]: -P[7] of 23
        0.3989562961623703,  // c[23]: -Q[7] of 23
        0.43595445213547385,  // c[24]: -Q[8] of 23
        0.005134227435360646,  // c[25]: -P[8] of 23
        0.028555549440596593,  // c[26]: P[9] of 23
        0.43504853203320293,  // c[27]: Q[9] of 23
        0.07198581089002037,  // c[28]: -Q[10] of 23
        0.4300007996022861,  // c[29]: P[10] of 23
        0.045454545454545456,  // c[30]: 1/22
        0.21799234196875997,  // c[31]: -beta of 23
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
        // real block of 11
        const V t22 = t8 + t16;
        const V t23 = t8 - t16;
        const V t24 = t20 + t2;
        const V t25 = t20 - t2;
        const V t26 = t18 + t12;
        const V t27 = t18 - t12;
        const V t28 = t6 + t10;
        const V t29 = t6 - t10;
        const V t30 = t14 + t4;
        const V t31 = t14 - t4;
        const V t32 = t22 + t24;
        const V t33 = t32 + t26;
        const V t34 = t33 + t28;
        const V t35 = t34 + t30;
        const V t36 = t35 + t0;
        const V t37 = c[0] * t22;
        const V t38 = c[1] * t24;
        const V t39 = t37 + t38;
        const V t40 = c[2] * t26;
        const V t41 = t39 - t40;
        const V t42 = c[3] * t28;
        const V t43 = t41 - t42;
        const V t44 = c[4] * t30;
        const V t45 = t43 - t44;
        const V t46 = t45 + t0;
        const V t47 = c[5] * t23;
        const V t48 = c[6] * t25;
        const V t49 = c[7] * t27;
        const V t50 = c[8] * t29;
        const V t51 = c[9] * t31;
        const V t52 = t48 + t51;
        const V t53 = t52 - t47;
        const V t54 = t53 - t49;
        const V t55 = t54 - t50;
        const V t56 = c[1] * t22;
        const V t57 = c[3] * t24;
        const V t58 = t56 - t57;
        const V t59 = c[4] * t26;
        const V t60 = t58 - t59;
        const V t61 = c[2] * t28;
        const V t62 = t60 - t61;
        const V t63 = c[0] * t30;
        const V t64 = t62 + t63;
        const V t65 = t64 + t0;
        const V t66 = c[6] * t23;
        const V t67 = c[8] * t25;
        const V t68 = c[9] * t27;
        const V t69 = c[7] * t29;
        const V t70 = c[5] * t31;
        const V t71 = t67 + t68;
        const V t72 = t71 + t69;
        const V t73 = t72 - t66;
        const V t74 = t73 - t70;
        const V t75 = c[2] * t22;
        const V t76 = t0 - t75;
        const V t77 = c[4] * t24;
        const V t78 = t76 - t77;
        const V t79 = c[1] * t26;
        const V t80 = t78 + t79;
        const V t81 = c[0] * t28;
        const V t82 = t80 + t81;
        const V t83 = c[3] * t30;
        const V t84 = t82 - t83;
        const V t85 = c[7] * t23;
        const V t86 = c[9] * t25;
        const V t87 = c[6] * t27;
        const V t88 = c[5] * t29;
        const V t89 = c[8] * t31;
        const V t90 = t87 + t89;
        const V t91 = t90 - t85;
        const V t92 = t91 - t86;
        const V t93 = t92 - t88;
        const V t94 = c[3] * t22;
        const V t95 = t0 - t94;
        const V t96 = c[2] * t24;
        const V t97 = t95 - t96;
        const V t98 = c[0] * t26;
        const V t99 = t97 + t98;
        const V t100 = c[4] * t28;
        const V t101 = t99 - t100;
        const V t102 = c[1] * t30;
        const V t103 = t101 + t102;
        const V t104 = c[8] * t23;
        const V t105 = c[7] * t25;
        const V t106 = c[5] * t27;
        const V t107 = c[9] * t29;
        const V t108 = c[6] * t31;
        const V t109 = t104 + t105;
        const V t110 = t109 + t106;
        const V t111 = t110 + t107;
        const V t112 = t111 + t108;
        const V t113 = c[4] * t22;
        const V t114 = t0 - t113;
        const V t115 = c[0] * t24;
        const V t116 = t114 + t115;
        const V t117 = c[3] * t26;
        const V t118 = t116 - t117;
        const V t119 = c[1] * t28;
        const V t120 = t118 + t119;
        const V t121 = c[2] * t30;
        const V t122 = t120 - t121;
        const V t123 = c[9] * t23;
        const V t124 = c[5] * t25;
        const V t125 = c[8] * t27;
        const V t126 = c[6] * t29;
        const V t127 = c[7] * t31;
        const V t128 = t126 + t127;
        const V t129 = t128 - t123;
        const V t130 = t129 - t124;
        const V t131 = t130 - t125;
        // real block of 11
        const V t132 = t17 - t9;
        const V t133 = t9 + t17;
        const V t134 = t3 - t21;
        const V t135 = t21 + t3;
        const V t136 = t19 + t13;
        const V t137 = t13 - t19;
        const V t138 = t7 + t11;
        const V t139 = t7 - t11;
        const V t140 = t15 + t5;
        const V t141 = t15 - t5;
        const V t142 = t132 + t134;
        const V t143 = t142 - t136;
        const V t144 = t143 + t138;
        const V t145 = t144 + t140;
        const V t146 = t145 + t1;
        const V t147 = c[0] * t132;
        const V t148 = c[1] * t134;
        const V t149 = t147 + t148;
        const V t150 = c[2] * t136;
        const V t151 = t149 + t150;
        const V t152 = c[3] * t138;
        const V t153 = t151 - t152;
        const V t154 = c[4] * t140;
        const V t155 = t153 - t154;
        const V t156 = t155 + t1;
        const V t157 = c[5] * t133;
        const V t158 = c[6] * t135;
        const V t159 = c[7] * t137;
        const V t160 = c[8] * t139;
        const V t161 = c[9] * t141;
        const V t162 = t157 + t161;
        const V t163 = t162 - t158;
        const V t164 = t163 - t159;
        const V t165 = t164 - t160;
        const V t166 = c[1] * t132;
        const V t167 = c[3] * t134;
        const V t168 = t166 - t167;
        const V t169 = c[4] * t136;
        const V t170 = t168 + t169;
        const V t171 = c[2] * t138;
        const V t172 = t170 - t171;
        const V t173 = c[0] * t140;
        const V t174 = t172 + t173;
        const V t175 = t174 + t1;
        const V t176 = c[6] * t133;
        const V t177 = c[8] * t135;
        const V t178 = c[9] * t137;
        const V t179 = c[7] * t139;
        const V t180 = c[5] * t141;
        const V t181 = t176 + t178;
        const V t182 = t181 + t179;
        const V t183 = t182 - t177;
        const V t184 = t183 - t180;
        const V t185 = c[2] * t132;
        const V t186 = t1 - t185;
        const V t187 = c[4] * t134;
        const V t188 = t186 - t187;
        const V t189 = c[1] * t136;
        const V t190 = t188 - t189;
        const V t191 = c[0] * t138;
        const V t192 = t190 + t191;
        const V t193 = c[3] * t140;
        const V t194 = t192 - t193;
        const V t195 = c[7] * t133;
        const V t196 = c[9] * t135;
        const V t197 = c[6] * t137;
        const V t198 = c[5] * t139;
        const V t199 = c[8] * t141;
        const V t200 = t195 + t196;
        const V t201 = t200 + t197;
        const V t202 = t201 + t199;
        const V t203 = t202 - t198;
        const V t204 = c[3] * t132;
        const V t205 = t1 - t204;
        const V t206 = c[2] * t134;
        const V t207 = t205 - t206;
        const V t208 = c[0] * t136;
        const V t209 = t207 - t208;
        const V t210 = c[4] * t138;
        const V t211 = t209 - t210;
        const V t212 = c[1] * t140;
        const V t213 = t211 + t212;
        const V t214 = c[8] * t133;
        const V t215 = c[7] * t135;
        const V t216 = c[5] * t137;
        const V t217 = c[9] * t139;
        const V t218 = c[6] * t141;
        const V t219 = t214 + t215;
        const V t220 = t219 - t216;
        const V t221 = t220 - t217;
        const V t222 = t221 - t218;
        const V t223 = c[4] * t132;
        const V t224 = t1 - t223;
        const V t225 = c[0] * t134;
        const V t226 = t224 + t225;
        const V t227 = c[3] * t136;
        const V t228 = t226 + t227;
        const V t229 = c[1] * t138;
        const V t230 = t228 + t229;
        const V t231 = c[2] * t140;
        const V t232 = t230 - t231;
        const V t233 = c[9] * t133;
        const V t234 = c[5] * t135;
        const V t235 = c[8] * t137;
        const V t236 = c[6] * t139;
        const V t237 = c[7] * t141;
        const V t238 = t233 + t234;
        const V t239 = t238 + t236;
        const V t240 = t239 + t237;
        const V t241 = t240 - t235;
        // spectrum block of 23
        const V t242 = c[30] * t36;
        const V x0r = io.re(0);
        const V t243 = x0r - t242;
        const V t244 = c[10] * t241;
        const V t245 = c[11] * t232;
        const V t246 = t245 + t244;
        const V t247 = c[10] * t232;
        const V t248 = c[11] * t241;
        const V t249 = t248 - t247;
        const V t250 = c[12] * t55;
        const V t251 = c[13] * t46;
        const V t252 = t251 - t250;
        const V t253 = c[12] * t46;
        const V t254 = c[13] * t55;
        const V t255 = t254 + t253;
        const V t256 = c[14] * t222;
        const V t257 = c[15] * t213;
        const V t258 = t257 - t256;
        const V t259 = c[14] * t213;
        const V t260 = c[15] * t222;
        const V t261 = t260 + t259;
        const V t262 = c[16] * t74;
        const V t263 = c[17] * t65;
        const V t264 = t263 - t262;
        const V t265 = c[16] * t65;
        const V t266 = c[17] * t74;
        const V t267 = t266 + t265;
        const V t268 = c[18] * t203;
        const V t269 = c[19] * t194;
        const V t270 = t269 - t268;
        const V t271 = c[18] * t194;
        const V t272 = c[19] * t203;
        const V t273 = t272 + t271;
        const V t274 = c[20] * t93;
        const V t275 = c[21] * t84;
        const V t276 = t275 - t274;
        const V t277 = c[20] * t84;
        const V t278 = c[21] * t93;
        const V t279 = t278 + t277;
        const V t280 = c[22] * t184;
        const V t281 = c[23] * t175;
        const V t282 = t281 + t280;
        const V t283 = c[22] * t175;
        const V t284 = c[23] * t184;
        const V t285 = t284 - t283;
        const V t286 = c[24] * t112;
        const V t287 = c[25] * t103;
        const V t288 = t287 + t286;
        const V t289 = c[24] * t103;
        const V t290 = c[25] * t112;
        const V t291 = t290 - t289;
        const V t292 = c[26] * t165;
        const V t293 = c[27] * t156;
        const V t294 = t293 + t292;
        const V t295 = c[26] * t156;
        const V t296 = c[27] * t165;
        const V t297 = t295 - t296;
        const V t298 = c[28] * t131;
        const V t299 = c[29] * t122;
        const V t300 = t299 + t298;
        const V t301 = c[28] * t122;
        const V t302 = c[29] * t131;
        const V t303 = t302 - t301;
        const V t304 = c[31] * t146;
        // spectrum block of 11, multiplier 2
        const V t305 = t252 + t264;
        const V t306 = t305 + t276;
        const V t307 = t306 - t288;
        const V t308 = t307 + t300;
        const V t309 = t308 + t243;
        const V t310 = c[0] * t252;
        const V t311 = c[1] * t264;
        const V t312 = t310 + t311;
        const V t313 = c[2] * t276;
        const V t314 = t312 - t313;
        const V t315 = c[3] * t288;
        const V t316 = t314 + t315;
        const V t317 = c[4] * t300;
        const V t318 = t316 - t317;
        const V t319 = t318 + t243;
        const V t320 = c[5] * t255;
        const V t321 = c[6] * t267;
        const V t322 = t320 + t321;
        const V t323 = c[7] * t279;
        const V t324 = t322 + t323;
        const V t325 = c[8] * t291;
        const V t326 = t324 + t325;
        const V t327 = c[9] * t303;
        const V t328 = t326 + t327;
        const V t329 = t319 - t328;
        const V t330 = t319 + t328;
        const V t331 = c[1] * t252;
        const V t332 = c[3] * t264;
        const V t333 = t331 - t332;
        const V t334 = c[4] * t276;
        const V t335 = t333 - t334;
        const V t336 = c[2] * t288;
        const V t337 = t335 + t336;
        const V t338 = c[0] * t300;
        const V t339 = t337 + t338;
        const V t340 = t339 + t243;
        const V t341 = c[6] * t255;
        const V t342 = c[8] * t267;
        const V t343 = t341 + t342;
        const V t344 = c[9] * t279;
        const V t345 = t343 - t344;
        const V t346 = c[7] * t291;
        const V t347 = t345 - t346;
        const V t348 = c[5] * t303;
        const V t349 = t347 - t348;
        const V t350 = t340 - t349;
        const V t351 = t340 + t349;
        const V t352 = c[2] * t252;
        const V t353 = t243 - t352;
        const V t354 = c[4] * t264;
        const V t355 = t353 - t354;
        const V t356 = c[1] * t276;
        const V t357 = t355 + t356;
        const V t358 = c[0] * t288;
        const V t359 = t357 - t358;
        const V t360 = c[3] * t300;
        const V t361 = t359 - t360;
        const V t362 = c[7] * t255;
        const V t363 = c[9] * t267;
        const V t364 = t362 - t363;
        const V t365 = c[6] * t279;
        const V t366 = t364 - t365;
        const V t367 = c[5] * t291;
        const V t368 = t366 + t367;
        const V t369 = c[8] * t303;
        const V t370 = t368 + t369;
        const V t371 = t361 - t370;
        const V t372 = t361 + t370;
        const V t373 = c[3] * t252;
        const V t374 = t243 - t373;
        const V t375 = c[2] * t264;
        const V t376 = t374 - t375;
        const V t377 = c[0] * t276;
        const V t378 = t376 + t377;
        const V t379 = c[4] * t288;
        const V t380 = t378 + t379;
        const V t381 = c[1] * t300;
        const V t382 = t380 + t381;
        const V t383 = c[8] * t255;
        const V t384 = c[7] * t267;
        const V t385 = t383 - t384;
        const V t386 = c[5] * t279;
        const V t387 = t385 + t386;
        const V t388 = c[9] * t291;
        const V t389 = t387 + t388;
        const V t390 = c[6] * t303;
        const V t391 = t389 - t390;
        const V t392 = t382 - t391;
        const V t393 = t382 + t391;
        const V t394 = c[4] * t252;
        const V t395 = t243 - t394;
        const V t396 = c[0] * t264;
        const V t397 = t395 + t396;
        const V t398 = c[3] * t276;
        const V t399 = t397 - t398;
        const V t400 = c[1] * t288;
        const V t401 = t399 - t400;
        const V t402 = c[2] * t300;
        const V t403 = t401 - t402;
        const V t404 = c[9] * t255;
        const V t405 = c[5] * t267;
        const V t406 = t404 - t405;
        const V t407 = c[8] * t279;
        const V t408 = t406 + t407;
        const V t409 = c[6] * t291;
        const V t410 = t408 - t409;
        const V t411 = c[7] * t303;
        const V t412 = t410 + t411;
        const V t413 = t403 - t412;
        const V t414 = t403 + t412;
        // spectrum block of 11, multiplier 2
        const V t415 = t294 - t282;
        const V t416 = t415 + t270;
        const V t417 = t416 + t258;
        const V t418 = t417 - t246;
        const V t419 = t418 - t304;
        const V t420 = c[0] * t294;
        const V t421 = c[1] * t282;
        const V t422 = t420 - t421;
        const V t423 = c[2] * t270;
        const V t424 = t422 - t423;
        const V t425 = c[3] * t258;
        const V t426 = t424 - t425;
        const V t427 = c[4] * t246;
        const V t428 = t426 + t427;
        const V t429 = t428 - t304;
        const V t430 = c[5] * t297;
        const V t431 = c[6] * t285;
        const V t432 = t430 + t431;
        const V t433 = c[7] * t273;
        const V t434 = t433 - t432;
        const V t435 = c[8] * t261;
        const V t436 = t434 + t435;
        const V t437 = c[9] * t249;
        const V t438 = t436 - t437;
        const V t439 = t429 - t438;
        const V t440 = t429 + t438;
        const V t441 = c[1] * t294;
        const V t442 = c[3] * t282;
        const V t443 = t441 + t442;
        const V t444 = c[4] * t270;
        const V t445 = t443 - t444;
        const V t446 = c[2] * t258;
        const V t447 = t445 - t446;
        const V t448 = c[0] * t246;
        const V t449 = t447 - t448;
        const V t450 = t449 - t304;
        const V t451 = c[6] * t297;
        const V t452 = c[8] * t285;
        const V t453 = t451 + t452;
        const V t454 = c[9] * t273;
        const V t455 = t453 + t454;
        const V t456 = c[7] * t261;
        const V t457 = t455 + t456;
        const V t458 = c[5] * t249;
        const V t459 = t458 - t457;
        const V t460 = t450 - t459;
        const V t461 = t450 + t459;
        const V t462 = c[2] * t294;
        const V t463 = t304 + t462;
        const V t464 = c[4] * t282;
        const V t465 = t464 - t463;
        const V t466 = c[1] * t270;
        const V t467 = t465 + t466;
        const V t468 = c[0] * t258;
        const V t469 = t467 + t468;
        const V t470 = c[3] * t246;
        const V t471 = t469 + t470;
        const V t472 = c[7] * t297;
        const V t473 = c[9] * t285;
        const V t474 = t473 - t472;
        const V t475 = c[6] * t273;
        const V t476 = t474 - t475;
        const V t477 = c[5] * t261;
        const V t478 = t476 + t477;
        const V t479 = c[8] * t249;
        const V t480 = t478 - t479;
        const V t481 = t471 - t480;
        const V t482 = t471 + t480;
        const V t483 = c[3] * t294;
        const V t484 = t304 + t483;
        const V t485 = c[2] * t282;
        const V t486 = t485 - t484;
        const V t487 = c[0] * t270;
        const V t488 = t486 + t487;
        const V t489 = c[4] * t258;
        const V t490 = t488 - t489;
        const V t491 = c[1] * t246;
        const V t492 = t490 - t491;
        const V t493 = c[8] * t297;
        const V t494 = c[7] * t285;
        const V t495 = t494 - t493;
        const V t496 = c[5] * t273;
        const V t497 = t495 + t496;
        const V t498 = c[9] * t261;
        const V t499 = t497 + t498;
        const V t500 = c[6] * t249;
        const V t501 = t499 + t500;
        const V t502 = t492 - t501;
        const V t503 = t492 + t501;
        const V t504 = c[4] * t294;
        const V t505 = t304 + t504;
        const V t506 = c[0] * t282;
        const V t507 = t505 + t506;
        const V t508 = c[3] * t270;
        const V t509 = t507 + t508;
        const V t510 = c[1] * t258;
        const V t511 = t510 - t509;
        const V t512 = c[2] * t246;
        const V t513 = t511 + t512;
        const V t514 = c[9] * t297;
        const V t515 = c[5] * t285;
        const V t516 = t515 - t514;
        const V t517 = c[8] * t273;
        const V t518 = t516 + t517;
        const V t519 = c[6] * t261;
        const V t520 = t518 - t519;
        const V t521 = c[7] * t249;
        const V t522 = t520 - t521;
        const V t523 = t513 - t522;
        const V t524 = t513 + t522;
        // spectrum block of 2
        const V t525 = t309 + t419;
        io.out(1, t525);
        const V t526 = t309 - t419;
        io.out(22, t526);
        // spectrum block of 2
        const V t527 = t350 + t460;
        io.out(12, t527);
        const V t528 = t350 - t460;
        io.out(11, t528);
        // spectrum block of 2
        const V t529 = t392 + t502;
        io.out(6, t529);
        const V t530 = t392 - t502;
        io.out(17, t530);
        // spectrum block of 2
        const V t531 = t414 + t524;
        io.out(3, t531);
        const V t532 = t414 - t524;
        io.out(20, t532);
        // spectrum block of 2
        const V t533 = t372 + t482;
        io.out(13, t533);
        const V t534 = t372 - t482;
        io.out(10, t534);
        // spectrum block of 2
        const V t535 = t330 + t440;
        io.out(18, t535);
        const V t536 = t330 - t440;
        io.out(5, t536);
        // spectrum block of 2
        const V t537 = t329 + t439;
        io.out(9, t537);
        const V t538 = t329 - t439;
        io.out(14, t538);
        // spectrum block of 2
        const V t539 = t371 + t481;
        io.out(16, t539);
        const V t540 = t371 - t481;
        io.out(7, t540);
        // spectrum block of 2
        const V t541 = t413 + t523;
        io.out(8, t541);
        const V t542 = t413 - t523;
        io.out(15, t542);
        // spectrum block of 2
        const V t543 = t393 + t503;
        io.out(4, t543);
        const V t544 = t393 - t503;
        io.out(19, t544);
        // spectrum block of 2
        const V t545 = t351 + t461;
        io.out(2, t545);
        const V t546 = t351 - t461;
        io.out(21, t546);
        // spectrum block of 23
        const V t547 = x0r + t36;
        io.out(0, t547);
    }
};

}  // namespace zulg
