// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 29.
// Hartley transform of 29 points, form F.
// 170 additions, 164 subtractions, 210 multiplications (239 with `scale`); 34 constants; 35 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<29> {
    static constexpr int steps = 573;  // with `scale`
    static constexpr double inverseRoot = 0.18569533817705186;  // 1/sqrt(29), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.2670821358430261,  // c[6]: -Q[1] of 29
        0.2768145884649087,  // c[7]: P[1] of 29
        0.32142566997698113,  // c[8]: Q[2] of 29
        0.21129297752958617,  // c[9]: P[2] of 29
        0.2491897008367598,  // c[10]: Q[3] of 29
        0.29302504444220384,  // c[11]: P[3] of 29
        0.19919633623825483,  // c[12]: Q[4] of 29
        0.3290592701972177,  // c[13]: P[4] of 29
        0.27532091814028564,  // c[14]: -Q[5] of 29
        0.26862162181749166,  // c[15]: P[5] of 29
        0.35927022128602587,  // c[16]: Q[6] of 29
        0.13741940099767344,  // c[17]: P[6] of 29
        0.3777140697119294,  // c[18]: Q[7] of 29
        0.07274108340629196,  // c[19]: -P[7] of 29
        0.21267702351981235,  // c[20]: Q[8] of 29
        0.3205115713047231,  // c[21]: -P[8] of 29
        0.38303879792644835,  // c[22]: -Q[9] of 29
        0.035220206650882144,  // c[23]: P[9] of 29
        0.0825185747421179,  // c[24]: -Q[10] of 29
        0.37569917287106036,  // c[25]: P[10] of 29
        0.28787780453569184,  // c[26]: -Q[11] of 29
        0.25511870438911255,  // c[27]: -P[11] of 29
        0.37467556794599116,  // c[28]: Q[12] of 29
        0.0870482765930398,  // c[29]: P[12] of 29
        0.3714454456857387,  // c[30]: Q[13] of 29
        0.0999373031094614,  // c[31]: -P[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 7, multiplier 4
        const V x16 = io.in(16);
        const V x20 = io.in(20);
        const V t0 = x16 + x20;
        const V t1 = x16 - x20;
        const V x23 = io.in(23);
        const V x24 = io.in(24);
        const V t2 = x23 + x24;
        const V t3 = x23 - x24;
        const V x25 = io.in(25);
        const V x7 = io.in(7);
        const V t4 = x25 + x7;
        const V t5 = x25 - x7;
        const V t6 = t0 + t2;
        const V t7 = t6 + t4;
        const V x1 = io.in(1);
        const V t8 = t7 + x1;
        const V t9 = c[0] * t0;
        const V t10 = x1 - t9;
        const V t11 = c[1] * t2;
        const V t12 = t10 + t11;
        const V t13 = c[2] * t4;
        const V t14 = t12 - t13;
        const V t15 = c[3] * t1;
        const V t16 = c[4] * t3;
        const V t17 = c[5] * t5;
        const V t18 = t15 + t16;
        const V t19 = t18 - t17;
        const V t20 = c[1] * t0;
        const V t21 = c[2] * t2;
        const V t22 = t20 - t21;
        const V t23 = c[0] * t4;
        const V t24 = t22 - t23;
        const V t25 = t24 + x1;
        const V t26 = c[4] * t1;
        const V t27 = c[5] * t3;
        const V t28 = c[3] * t5;
        const V t29 = t27 + t28;
        const V t30 = t29 - t26;
        const V t31 = c[2] * t0;
        const V t32 = x1 - t31;
        const V t33 = c[0] * t2;
        const V t34 = t32 - t33;
        const V t35 = c[1] * t4;
        const V t36 = t34 + t35;
        const V t37 = c[5] * t1;
        const V t38 = c[3] * t3;
        const V t39 = c[4] * t5;
        const V t40 = t37 + t38;
        const V t41 = t40 + t39;
        // real block of 7, multiplier 4
        const V x18 = io.in(18);
        const V x8 = io.in(8);
        const V t42 = x18 + x8;
        const V t43 = x18 - x8;
        const V x15 = io.in(15);
        const V x27 = io.in(27);
        const V t44 = x15 + x27;
        const V t45 = x15 - x27;
        const V x10 = io.in(10);
        const V x26 = io.in(26);
        const V t46 = x10 + x26;
        const V t47 = x10 - x26;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V x12 = io.in(12);
        const V t50 = t49 + x12;
        const V t51 = c[0] * t42;
        const V t52 = x12 - t51;
        const V t53 = c[1] * t44;
        const V t54 = t52 + t53;
        const V t55 = c[2] * t46;
        const V t56 = t54 - t55;
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t57 + t58;
        const V t61 = t60 - t59;
        const V t62 = c[1] * t42;
        const V t63 = c[2] * t44;
        const V t64 = t62 - t63;
        const V t65 = c[0] * t46;
        const V t66 = t64 - t65;
        const V t67 = t66 + x12;
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t69 + t70;
        const V t72 = t71 - t68;
        const V t73 = c[2] * t42;
        const V t74 = x12 - t73;
        const V t75 = c[0] * t44;
        const V t76 = t74 - t75;
        const V t77 = c[1] * t46;
        const V t78 = t76 + t77;
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t79 + t80;
        const V t83 = t82 + t81;
        // real block of 7, multiplier 4
        const V x13 = io.in(13);
        const V x9 = io.in(9);
        const V t84 = x13 + x9;
        const V t85 = x13 - x9;
        const V x6 = io.in(6);
        const V x5 = io.in(5);
        const V t86 = x6 + x5;
        const V t87 = x6 - x5;
        const V x4 = io.in(4);
        const V x22 = io.in(22);
        const V t88 = x4 + x22;
        const V t89 = x4 - x22;
        const V t90 = t84 + t86;
        const V t91 = t90 + t88;
        const V x28 = io.in(28);
        const V t92 = t91 + x28;
        const V t93 = c[0] * t84;
        const V t94 = x28 - t93;
        const V t95 = c[1] * t86;
        const V t96 = t94 + t95;
        const V t97 = c[2] * t88;
        const V t98 = t96 - t97;
        const V t99 = c[3] * t85;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t89;
        const V t102 = t99 + t100;
        const V t103 = t102 - t101;
        const V t104 = c[1] * t84;
        const V t105 = c[2] * t86;
        const V t106 = t104 - t105;
        const V t107 = c[0] * t88;
        const V t108 = t106 - t107;
        const V t109 = t108 + x28;
        const V t110 = c[4] * t85;
        const V t111 = c[5] * t87;
        const V t112 = c[3] * t89;
        const V t113 = t111 + t112;
        const V t114 = t113 - t110;
        const V t115 = c[2] * t84;
        const V t116 = x28 - t115;
        const V t117 = c[0] * t86;
        const V t118 = t116 - t117;
        const V t119 = c[1] * t88;
        const V t120 = t118 + t119;
        const V t121 = c[5] * t85;
        const V t122 = c[3] * t87;
        const V t123 = c[4] * t89;
        const V t124 = t121 + t122;
        const V t125 = t124 + t123;
        // real block of 7, multiplier 4
        const V x11 = io.in(11);
        const V x21 = io.in(21);
        const V t126 = x11 + x21;
        const V t127 = x11 - x21;
        const V x14 = io.in(14);
        const V x2 = io.in(2);
        const V t128 = x14 + x2;
        const V t129 = x14 - x2;
        const V x19 = io.in(19);
        const V x3 = io.in(3);
        const V t130 = x19 + x3;
        const V t131 = x19 - x3;
        const V t132 = t126 + t128;
        const V t133 = t132 + t130;
        const V x17 = io.in(17);
        const V t134 = t133 + x17;
        const V t135 = c[0] * t126;
        const V t136 = x17 - t135;
        const V t137 = c[1] * t128;
        const V t138 = t136 + t137;
        const V t139 = c[2] * t130;
        const V t140 = t138 - t139;
        const V t141 = c[3] * t127;
        const V t142 = c[4] * t129;
        const V t143 = c[5] * t131;
        const V t144 = t141 + t142;
        const V t145 = t144 - t143;
        const V t146 = c[1] * t126;
        const V t147 = c[2] * t128;
        const V t148 = t146 - t147;
        const V t149 = c[0] * t130;
        const V t150 = t148 - t149;
        const V t151 = t150 + x17;
        const V t152 = c[4] * t127;
        const V t153 = c[5] * t129;
        const V t154 = c[3] * t131;
        const V t155 = t153 + t154;
        const V t156 = t155 - t152;
        const V t157 = c[2] * t126;
        const V t158 = x17 - t157;
        const V t159 = c[0] * t128;
        const V t160 = t158 - t159;
        const V t161 = c[1] * t130;
        const V t162 = t160 + t161;
        const V t163 = c[5] * t127;
        const V t164 = c[3] * t129;
        const V t165 = c[4] * t131;
        const V t166 = t163 + t164;
        const V t167 = t166 + t165;
        // real block of 2
        const V t168 = t8 + t92;
        const V t169 = t8 - t92;
        // real block of 2
        const V t170 = t50 + t134;
        const V t171 = t50 - t134;
        // real block of 2
        const V t172 = t168 + t170;
        const V t173 = t168 - t170;
        // complex block of 2
        const V t174 = t14 + t98;
        const V t175 = t19 + t103;
        const V t176 = t14 - t98;
        const V t177 = t19 - t103;
        // complex block of 2
        const V t178 = t56 + t140;
        const V t179 = t61 + t145;
        const V t180 = t56 - t140;
        const V t181 = t61 - t145;
        // complex block of 2
        const V t182 = t174 + t178;
        const V t183 = t175 + t179;
        const V t184 = t174 - t178;
        const V t185 = t175 - t179;
        // complex block of 2
        const V t186 = t176 - t181;
        const V t187 = t177 + t180;
        const V t188 = t176 + t181;
        const V t189 = t177 - t180;
        // complex block of 2
        const V t190 = t25 + t109;
        const V t191 = t30 + t114;
        const V t192 = t25 - t109;
        const V t193 = t30 - t114;
        // complex block of 2
        const V t194 = t67 + t151;
        const V t195 = t72 + t156;
        const V t196 = t67 - t151;
        const V t197 = t72 - t156;
        // complex block of 2
        const V t198 = t190 + t194;
        const V t199 = t191 + t195;
        const V t200 = t190 - t194;
        const V t201 = t191 - t195;
        // complex block of 2
        const V t202 = t192 - t197;
        const V t203 = t193 + t196;
        const V t204 = t192 + t197;
        const V t205 = t193 - t196;
        // complex block of 2
        const V t206 = t36 + t120;
        const V t207 = t41 + t125;
        const V t208 = t36 - t120;
        const V t209 = t41 - t125;
        // complex block of 2
        const V t210 = t78 + t162;
        const V t211 = t83 + t167;
        const V t212 = t78 - t162;
        const V t213 = t83 - t167;
        // complex block of 2
        const V t214 = t206 + t210;
        const V t215 = t207 + t211;
        const V t216 = t206 - t210;
        const V t217 = t207 - t211;
        // complex block of 2
        const V t218 = t208 - t213;
        const V t219 = t209 + t212;
        const V t220 = t208 + t213;
        const V t221 = t209 - t212;
        // real block of 29
        const V x0 = io.in(0);
        const V t222 = x0 + t172;
        io.out(0, t222);
        const V t223 = c[32] * t172;
        const V t224 = x0 - t223;
        const V t225 = c[6] * t205;
        const V t226 = c[7] * t204;
        const V t227 = t226 + t225;
        const V t228 = c[6] * t204;
        const V t229 = c[7] * t205;
        const V t230 = t229 - t228;
        const V t231 = c[8] * t217;
        const V t232 = c[9] * t216;
        const V t233 = t232 + t231;
        const V t234 = c[8] * t216;
        const V t235 = c[9] * t217;
        const V t236 = t234 - t235;
        const V t237 = c[10] * t189;
        const V t238 = c[11] * t188;
        const V t239 = t238 + t237;
        const V t240 = c[10] * t188;
        const V t241 = c[11] * t189;
        const V t242 = t240 - t241;
        const V t243 = c[12] * t183;
        const V t244 = c[13] * t182;
        const V t245 = t244 - t243;
        const V t246 = c[12] * t182;
        const V t247 = c[13] * t183;
        const V t248 = t247 + t246;
        const V t249 = c[14] * t221;
        const V t250 = c[15] * t220;
        const V t251 = t250 + t249;
        const V t252 = c[14] * t220;
        const V t253 = c[15] * t221;
        const V t254 = t253 - t252;
        const V t255 = c[16] * t201;
        const V t256 = c[17] * t200;
        const V t257 = t256 + t255;
        const V t258 = c[16] * t200;
        const V t259 = c[17] * t201;
        const V t260 = t258 - t259;
        const V t261 = c[18] * t171;
        const V t262 = c[19] * t169;
        const V t263 = t262 + t261;
        const V t264 = c[18] * t169;
        const V t265 = c[19] * t171;
        const V t266 = t264 - t265;
        const V t267 = c[20] * t199;
        const V t268 = c[21] * t198;
        const V t269 = t268 + t267;
        const V t270 = c[20] * t198;
        const V t271 = c[21] * t199;
        const V t272 = t270 - t271;
        const V t273 = c[22] * t219;
        const V t274 = c[23] * t218;
        const V t275 = t274 - t273;
        const V t276 = c[22] * t218;
        const V t277 = c[23] * t219;
        const V t278 = t277 + t276;
        const V t279 = c[24] * t185;
        const V t280 = c[25] * t184;
        const V t281 = t280 - t279;
        const V t282 = c[24] * t184;
        const V t283 = c[25] * t185;
        const V t284 = t283 + t282;
        const V t285 = c[26] * t187;
        const V t286 = c[27] * t186;
        const V t287 = t285 - t286;
        const V t288 = c[26] * t186;
        const V t289 = c[27] * t187;
        const V t290 = t289 + t288;
        const V t291 = c[28] * t215;
        const V t292 = c[29] * t214;
        const V t293 = t292 - t291;
        const V t294 = c[28] * t214;
        const V t295 = c[29] * t215;
        const V t296 = t295 + t294;
        const V t297 = c[30] * t203;
        const V t298 = c[31] * t202;
        const V t299 = t297 - t298;
        const V t300 = c[30] * t202;
        const V t301 = c[31] * t203;
        const V t302 = t301 + t300;
        const V t303 = c[33] * t173;
        // spectrum block of 2
        const V t304 = t224 + t303;
        const V t305 = t224 - t303;
        // complex block of 2
        const V t306 = t248 + t284;
        const V t307 = t245 + t281;
        const V t308 = t248 - t284;
        const V t309 = t245 - t281;
        // complex block of 2
        const V t310 = t272 - t260;
        const V t311 = t257 - t269;
        const V t312 = t272 + t260;
        const V t313 = t269 + t257;
        // complex block of 2
        const V t314 = t296 - t236;
        const V t315 = t293 + t233;
        const V t316 = t296 + t236;
        const V t317 = t293 - t233;
        // spectrum block of 7, multiplier 2
        const V t318 = t307 + t311;
        const V t319 = t318 + t315;
        const V t320 = t319 + t304;
        const V t321 = c[1] * t307;
        const V t322 = c[2] * t311;
        const V t323 = t321 - t322;
        const V t324 = c[0] * t315;
        const V t325 = t323 - t324;
        const V t326 = t325 + t304;
        const V t327 = c[4] * t306;
        const V t328 = c[5] * t310;
        const V t329 = t327 + t328;
        const V t330 = c[3] * t314;
        const V t331 = t329 + t330;
        const V t332 = t326 - t331;
        const V t333 = t326 + t331;
        const V t334 = c[2] * t307;
        const V t335 = t304 - t334;
        const V t336 = c[0] * t311;
        const V t337 = t335 - t336;
        const V t338 = c[1] * t315;
        const V t339 = t337 + t338;
        const V t340 = c[5] * t306;
        const V t341 = c[3] * t310;
        const V t342 = t340 - t341;
        const V t343 = c[4] * t314;
        const V t344 = t342 - t343;
        const V t345 = t339 - t344;
        const V t346 = t339 + t344;
        const V t347 = c[0] * t307;
        const V t348 = t304 - t347;
        const V t349 = c[1] * t311;
        const V t350 = t348 + t349;
        const V t351 = c[2] * t315;
        const V t352 = t350 - t351;
        const V t353 = c[3] * t306;
        const V t354 = c[4] * t310;
        const V t355 = t353 - t354;
        const V t356 = c[5] * t314;
        const V t357 = t355 + t356;
        const V t358 = t352 - t357;
        const V t359 = t352 + t357;
        // spectrum block of 7, multiplier 2
        const V t360 = t309 - t313;
        const V t361 = t360 + t317;
        const V t362 = t361 + t305;
        const V t363 = c[1] * t309;
        const V t364 = c[2] * t313;
        const V t365 = t363 + t364;
        const V t366 = c[0] * t317;
        const V t367 = t365 - t366;
        const V t368 = t367 + t305;
        const V t369 = c[4] * t308;
        const V t370 = c[5] * t312;
        const V t371 = t369 + t370;
        const V t372 = c[3] * t316;
        const V t373 = t371 + t372;
        const V t374 = t368 - t373;
        const V t375 = t368 + t373;
        const V t376 = c[2] * t309;
        const V t377 = t305 - t376;
        const V t378 = c[0] * t313;
        const V t379 = t377 + t378;
        const V t380 = c[1] * t317;
        const V t381 = t379 + t380;
        const V t382 = c[5] * t308;
        const V t383 = c[3] * t312;
        const V t384 = t382 - t383;
        const V t385 = c[4] * t316;
        const V t386 = t384 - t385;
        const V t387 = t381 - t386;
        const V t388 = t381 + t386;
        const V t389 = c[0] * t309;
        const V t390 = t305 - t389;
        const V t391 = c[1] * t313;
        const V t392 = t390 - t391;
        const V t393 = c[2] * t317;
        const V t394 = t392 - t393;
        const V t395 = c[3] * t308;
        const V t396 = c[4] * t312;
        const V t397 = t395 - t396;
        const V t398 = c[5] * t316;
        const V t399 = t397 + t398;
        const V t400 = t394 - t399;
        const V t401 = t394 + t399;
        // complex block of 2
        const V t402 = t299 - t227;
        const V t403 = t230 + t302;
        const V t404 = t227 + t299;
        const V t405 = t230 - t302;
        // mirrored skew block of 14
        const V t406 = c[2] * t404;
        const V t407 = c[5] * t405;
        const V t408 = t407 + t406;
        const V t409 = c[2] * t405;
        const V t410 = c[5] * t404;
        const V t411 = t409 - t410;
        // complex block of 2
        const V t412 = t287 - t239;
        const V t413 = t242 - t290;
        const V t414 = t239 + t287;
        const V t415 = t242 + t290;
        // mirrored skew block of 14
        const V t416 = c[1] * t414;
        const V t417 = c[4] * t415;
        const V t418 = t417 + t416;
        const V t419 = c[1] * t415;
        const V t420 = c[4] * t414;
        const V t421 = t419 - t420;
        // complex block of 2
        const V t422 = t275 - t251;
        const V t423 = t254 - t278;
        const V t424 = t251 + t275;
        const V t425 = t254 + t278;
        // mirrored skew block of 14
        const V t426 = c[0] * t424;
        const V t427 = c[3] * t425;
        const V t428 = t427 + t426;
        const V t429 = c[0] * t425;
        const V t430 = c[3] * t424;
        const V t431 = t429 - t430;
        // spectrum block of 7, multiplier 2
        const V t432 = t423 + t413;
        const V t433 = t432 + t403;
        const V t434 = t433 + t266;
        const V t435 = c[1] * t423;
        const V t436 = c[2] * t413;
        const V t437 = t435 - t436;
        const V t438 = c[0] * t403;
        const V t439 = t437 - t438;
        const V t440 = t439 + t266;
        const V t441 = c[4] * t422;
        const V t442 = c[5] * t412;
        const V t443 = t441 + t442;
        const V t444 = c[3] * t402;
        const V t445 = t443 + t444;
        const V t446 = t440 + t445;
        const V t447 = t440 - t445;
        const V t448 = c[2] * t423;
        const V t449 = t266 - t448;
        const V t450 = c[0] * t413;
        const V t451 = t449 - t450;
        const V t452 = c[1] * t403;
        const V t453 = t451 + t452;
        const V t454 = c[5] * t422;
        const V t455 = c[3] * t412;
        const V t456 = t455 - t454;
        const V t457 = c[4] * t402;
        const V t458 = t456 + t457;
        const V t459 = t453 - t458;
        const V t460 = t453 + t458;
        const V t461 = c[0] * t423;
        const V t462 = t266 - t461;
        const V t463 = c[1] * t413;
        const V t464 = t462 + t463;
        const V t465 = c[2] * t403;
        const V t466 = t464 - t465;
        const V t467 = c[3] * t422;
        const V t468 = c[4] * t412;
        const V t469 = t468 - t467;
        const V t470 = c[5] * t402;
        const V t471 = t469 - t470;
        const V t472 = t466 - t471;
        const V t473 = t466 + t471;
        // spectrum block of 7, multiplier 2
        const V t474 = t428 + t418;
        const V t475 = t474 + t408;
        const V t476 = t475 - t263;
        const V t477 = c[1] * t428;
        const V t478 = c[2] * t418;
        const V t479 = t477 - t478;
        const V t480 = c[0] * t408;
        const V t481 = t479 - t480;
        const V t482 = t481 - t263;
        const V t483 = c[4] * t431;
        const V t484 = c[5] * t421;
        const V t485 = t483 + t484;
        const V t486 = c[3] * t411;
        const V t487 = t485 + t486;
        const V t488 = t482 + t487;
        const V t489 = t482 - t487;
        const V t490 = c[2] * t428;
        const V t491 = t263 + t490;
        const V t492 = c[0] * t418;
        const V t493 = t491 + t492;
        const V t494 = c[1] * t408;
        const V t495 = t494 - t493;
        const V t496 = c[5] * t431;
        const V t497 = c[3] * t421;
        const V t498 = t497 - t496;
        const V t499 = c[4] * t411;
        const V t500 = t498 + t499;
        const V t501 = t495 - t500;
        const V t502 = t495 + t500;
        const V t503 = c[0] * t428;
        const V t504 = t263 + t503;
        const V t505 = c[1] * t418;
        const V t506 = t505 - t504;
        const V t507 = c[2] * t408;
        const V t508 = t506 - t507;
        const V t509 = c[3] * t431;
        const V t510 = c[4] * t421;
        const V t511 = t510 - t509;
        const V t512 = c[5] * t411;
        const V t513 = t511 - t512;
        const V t514 = t508 - t513;
        const V t515 = t508 + t513;
        // output stage
        const V t516 = t320 - t434;
        io.out(1, t516);
        const V t517 = t320 + t434;
        io.out(28, t517);
        const V t518 = t375 + t489;
        io.out(2, t518);
        const V t519 = t375 - t489;
        io.out(27, t519);
        const V t520 = t387 + t515;
        io.out(3, t520);
        const V t521 = t387 - t515;
        io.out(26, t521);
        const V t522 = t346 + t447;
        io.out(4, t522);
        const V t523 = t346 - t447;
        io.out(25, t523);
        const V t524 = t333 + t472;
        io.out(5, t524);
        const V t525 = t333 - t472;
        io.out(24, t525);
        const V t526 = t332 + t473;
        io.out(6, t526);
        const V t527 = t332 - t473;
        io.out(23, t527);
        const V t528 = t345 - t446;
        io.out(7, t528);
        const V t529 = t345 + t446;
        io.out(22, t529);
        const V t530 = t401 - t502;
        io.out(8, t530);
        const V t531 = t401 + t502;
        io.out(21, t531);
        const V t532 = t359 + t459;
        io.out(9, t532);
        const V t533 = t359 - t459;
        io.out(20, t533);
        const V t534 = t388 - t501;
        io.out(10, t534);
        const V t535 = t388 + t501;
        io.out(19, t535);
        const V t536 = t400 + t488;
        io.out(11, t536);
        const V t537 = t400 - t488;
        io.out(18, t537);
        const V t538 = t362 - t514;
        io.out(12, t538);
        const V t539 = t362 + t514;
        io.out(17, t539);
        const V t540 = t358 + t460;
        io.out(13, t540);
        const V t541 = t358 - t460;
        io.out(16, t541);
        const V t542 = t374 + t476;
        io.out(14, t542);
        const V t543 = t374 - t476;
        io.out(15, t543);
    }
};

}  // namespace zulg
