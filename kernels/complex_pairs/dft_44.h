// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 44.
// Complex DFT of 44 points, prime-factor, order 11, 4; one complex number to a register.
// 220 sums, 180 differences, 200 products of registers, which do the 1288 steps of the graph, those with
// `scale` included; 31 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<44> {
    static constexpr int steps = 1288;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5450828424811972,  // c[4]: -P[1] of 11
        0.3780009190896476,  // c[5]: Q[1] of 11
        0.18992416871531467,  // c[6]: -P[2] of 11
        0.6355539395974166,  // c[7]: -Q[2] of 11
        0.6617220446385197,  // c[8]: -P[3] of 11
        0.046086176229070706,  // c[9]: Q[3] of 11
        0.3649365652299704,  // c[10]: -P[4] of 11
        0.5539145271232301,  // c[11]: Q[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x16 = io.pair(16);
        const P x12 = io.pair(12);
        // real block of 5, multiplier 2
        const P t0 = x16 + x12;
        const P t1 = x16 - x12;
        const P x36 = io.pair(36);
        const P x20 = io.pair(20);
        const P t2 = x36 + x20;
        const P t3 = x36 - x20;
        const P t4 = t0 + t2;
        const P x4 = io.pair(4);
        const P t5 = t4 + x4;
        const P t6 = c[0] * t0;
        const P t7 = x4 - t6;
        const P t8 = c[1] * t2;
        const P t9 = t7 + t8;
        const P t10 = c[2] * t1;
        const P t11 = c[3] * t3;
        const P t12 = t10 + t11;
        const P t13 = c[1] * t0;
        const P t14 = c[0] * t2;
        const P t15 = t13 - t14;
        const P t16 = t15 + x4;
        const P t17 = c[3] * t1;
        const P t18 = c[2] * t3;
        const P t19 = t17 - t18;
        const P x28 = io.pair(28);
        const P x32 = io.pair(32);
        // real block of 5, multiplier 2
        const P t20 = x28 + x32;
        const P t21 = x28 - x32;
        const P x8 = io.pair(8);
        const P x24 = io.pair(24);
        const P t22 = x8 + x24;
        const P t23 = x8 - x24;
        const P t24 = t20 + t22;
        const P x40 = io.pair(40);
        const P t25 = t24 + x40;
        const P t26 = c[0] * t20;
        const P t27 = x40 - t26;
        const P t28 = c[1] * t22;
        const P t29 = t27 + t28;
        const P t30 = c[2] * t21;
        const P t31 = c[3] * t23;
        const P t32 = t30 + t31;
        const P t33 = c[1] * t20;
        const P t34 = c[0] * t22;
        const P t35 = t33 - t34;
        const P t36 = t35 + x40;
        const P t37 = c[3] * t21;
        const P t38 = c[2] * t23;
        const P t39 = t37 - t38;
        // real block of 2
        const P t40 = t5 + t25;
        const P t41 = t5 - t25;
        // complex block of 2
        const P t42 = t9 + t29;
        const P t43 = t12 + t32;
        const P t44 = t9 - t29;
        const P t45 = t32 - t12;
        // complex block of 2
        const P t46 = t16 + t36;
        const P t47 = t19 + t39;
        const P t48 = t16 - t36;
        const P t49 = t19 - t39;
        const P x0 = io.pair(0);
        // complex block of 11, multiplier 4
        const P t50 = x0 + t40;
        const P t51 = c[12] * t40;
        const P t52 = x0 - t51;
        const P t53 = shuffled<1, 0>(t49);
        const P t54 = P(-c[4], c[4]) * t53;
        const P t55 = shuffled<1, 0>(t48);
        const P t56 = P(c[5], -c[5]) * t55;
        const P t57 = t54 + t56;
        const P t58 = c[5] * t53;
        const P t59 = c[4] * t55;
        const P t60 = t58 + t59;
        const P t61 = c[6] * t42;
        const P t62 = c[7] * t43;
        const P t63 = t61 + t62;
        const P t64 = c[6] * t43;
        const P t65 = c[7] * t42;
        const P t66 = t64 - t65;
        const P t67 = shuffled<1, 0>(t45);
        const P t68 = P(-c[8], c[8]) * t67;
        const P t69 = shuffled<1, 0>(t44);
        const P t70 = P(c[9], -c[9]) * t69;
        const P t71 = t68 + t70;
        const P t72 = c[9] * t67;
        const P t73 = c[8] * t69;
        const P t74 = t72 + t73;
        const P t75 = c[10] * t46;
        const P t76 = c[11] * t47;
        const P t77 = t75 + t76;
        const P t78 = c[11] * t46;
        const P t79 = c[10] * t47;
        const P t80 = t78 - t79;
        const P t81 = shuffled<1, 0>(t41);
        const P t82 = P(c[13], -c[13]) * t81;
        // spectrum block of 2
        const P t83 = t52 + t82;
        const P t84 = t52 - t82;
        const P t85 = flipped<0, 1>(t74);
        // complex block of 2
        const P t86 = t66 + t85;
        const P t87 = t71 - t63;
        const P t88 = t66 - t85;
        const P t89 = t63 + t71;
        const P t90 = flipped<0, 1>(t60);
        // complex block of 2
        const P t91 = t80 + t90;
        const P t92 = t57 - t77;
        const P t93 = t80 - t90;
        const P t94 = t77 + t57;
        // spectrum block of 5, multiplier 2
        const P t95 = t87 + t92;
        const P t96 = t95 + t83;
        const P t97 = c[1] * t87;
        const P t98 = c[0] * t92;
        const P t99 = t97 - t98;
        const P t100 = t99 + t83;
        const P t101 = c[3] * t86;
        const P t102 = c[2] * t91;
        const P t103 = t101 + t102;
        const P t104 = t100 - t103;
        const P t105 = t100 + t103;
        const P t106 = c[0] * t87;
        const P t107 = t83 - t106;
        const P t108 = c[1] * t92;
        const P t109 = t107 + t108;
        const P t110 = c[2] * t86;
        const P t111 = c[3] * t91;
        const P t112 = t110 - t111;
        const P t113 = t109 - t112;
        const P t114 = t109 + t112;
        // spectrum block of 5, multiplier 2
        const P t115 = t89 + t94;
        const P t116 = t84 - t115;
        const P t117 = c[1] * t89;
        const P t118 = t84 - t117;
        const P t119 = c[0] * t94;
        const P t120 = t118 + t119;
        const P t121 = c[3] * t88;
        const P t122 = c[2] * t93;
        const P t123 = t121 + t122;
        const P t124 = t120 - t123;
        const P t125 = t120 + t123;
        const P t126 = c[0] * t89;
        const P t127 = c[1] * t94;
        const P t128 = t126 - t127;
        const P t129 = t128 + t84;
        const P t130 = c[2] * t88;
        const P t131 = c[3] * t93;
        const P t132 = t130 - t131;
        const P t133 = t129 - t132;
        const P t134 = t129 + t132;
        const P x27 = io.pair(27);
        const P x23 = io.pair(23);
        // real block of 5, multiplier 2
        const P t135 = x27 + x23;
        const P t136 = x27 - x23;
        const P x3 = io.pair(3);
        const P x31 = io.pair(31);
        const P t137 = x3 + x31;
        const P t138 = x3 - x31;
        const P t139 = t135 + t137;
        const P x15 = io.pair(15);
        const P t140 = t139 + x15;
        const P t141 = c[0] * t135;
        const P t142 = x15 - t141;
        const P t143 = c[1] * t137;
        const P t144 = t142 + t143;
        const P t145 = c[2] * t136;
        const P t146 = c[3] * t138;
        const P t147 = t145 + t146;
        const P t148 = c[1] * t135;
        const P t149 = c[0] * t137;
        const P t150 = t148 - t149;
        const P t151 = t150 + x15;
        const P t152 = c[3] * t136;
        const P t153 = c[2] * t138;
        const P t154 = t152 - t153;
        const P x39 = io.pair(39);
        const P x43 = io.pair(43);
        // real block of 5, multiplier 2
        const P t155 = x39 + x43;
        const P t156 = x39 - x43;
        const P x19 = io.pair(19);
        const P x35 = io.pair(35);
        const P t157 = x19 + x35;
        const P t158 = x19 - x35;
        const P t159 = t155 + t157;
        const P x7 = io.pair(7);
        const P t160 = t159 + x7;
        const P t161 = c[0] * t155;
        const P t162 = x7 - t161;
        const P t163 = c[1] * t157;
        const P t164 = t162 + t163;
        const P t165 = c[2] * t156;
        const P t166 = c[3] * t158;
        const P t167 = t165 + t166;
        const P t168 = c[1] * t155;
        const P t169 = c[0] * t157;
        const P t170 = t168 - t169;
        const P t171 = t170 + x7;
        const P t172 = c[3] * t156;
        const P t173 = c[2] * t158;
        const P t174 = t172 - t173;
        // real block of 2
        const P t175 = t140 + t160;
        const P t176 = t140 - t160;
        // complex block of 2
        const P t177 = t144 + t164;
        const P t178 = t147 + t167;
        const P t179 = t144 - t164;
        const P t180 = t167 - t147;
        // complex block of 2
        const P t181 = t151 + t171;
        const P t182 = t154 + t174;
        const P t183 = t151 - t171;
        const P t184 = t154 - t174;
        const P x11 = io.pair(11);
        // complex block of 11, multiplier 4
        const P t185 = x11 + t175;
        const P t186 = c[12] * t175;
        const P t187 = x11 - t186;
        const P t188 = shuffled<1, 0>(t184);
        const P t189 = P(-c[4], c[4]) * t188;
        const P t190 = shuffled<1, 0>(t183);
        const P t191 = P(c[5], -c[5]) * t190;
        const P t192 = t189 + t191;
        const P t193 = c[5] * t188;
        const P t194 = c[4] * t190;
        const P t195 = t193 + t194;
        const P t196 = c[6] * t177;
        const P t197 = c[7] * t178;
        const P t198 = t196 + t197;
        const P t199 = c[6] * t178;
        const P t200 = c[7] * t177;
        const P t201 = t199 - t200;
        const P t202 = shuffled<1, 0>(t180);
        const P t203 = P(-c[8], c[8]) * t202;
        const P t204 = shuffled<1, 0>(t179);
        const P t205 = P(c[9], -c[9]) * t204;
        const P t206 = t203 + t205;
        const P t207 = c[9] * t202;
        const P t208 = c[8] * t204;
        const P t209 = t207 + t208;
        const P t210 = c[10] * t181;
        const P t211 = c[11] * t182;
        const P t212 = t210 + t211;
        const P t213 = c[11] * t181;
        const P t214 = c[10] * t182;
        const P t215 = t213 - t214;
        const P t216 = shuffled<1, 0>(t176);
        const P t217 = P(c[13], -c[13]) * t216;
        // spectrum block of 2
        const P t218 = t187 + t217;
        const P t219 = t187 - t217;
        const P t220 = flipped<0, 1>(t209);
        // complex block of 2
        const P t221 = t201 + t220;
        const P t222 = t206 - t198;
        const P t223 = t201 - t220;
        const P t224 = t198 + t206;
        const P t225 = flipped<0, 1>(t195);
        // complex block of 2
        const P t226 = t215 + t225;
        const P t227 = t192 - t212;
        const P t228 = t215 - t225;
        const P t229 = t212 + t192;
        // spectrum block of 5, multiplier 2
        const P t230 = t222 + t227;
        const P t231 = t230 + t218;
        const P t232 = c[1] * t222;
        const P t233 = c[0] * t227;
        const P t234 = t232 - t233;
        const P t235 = t234 + t218;
        const P t236 = c[3] * t221;
        const P t237 = c[2] * t226;
        const P t238 = t236 + t237;
        const P t239 = t235 - t238;
        const P t240 = t235 + t238;
        const P t241 = c[0] * t222;
        const P t242 = t218 - t241;
        const P t243 = c[1] * t227;
        const P t244 = t242 + t243;
        const P t245 = c[2] * t221;
        const P t246 = c[3] * t226;
        const P t247 = t245 - t246;
        const P t248 = t244 - t247;
        const P t249 = t244 + t247;
        // spectrum block of 5, multiplier 2
        const P t250 = t224 + t229;
        const P t251 = t219 - t250;
        const P t252 = c[1] * t224;
        const P t253 = t219 - t252;
        const P t254 = c[0] * t229;
        const P t255 = t253 + t254;
        const P t256 = c[3] * t223;
        const P t257 = c[2] * t228;
        const P t258 = t256 + t257;
        const P t259 = t255 - t258;
        const P t260 = t255 + t258;
        const P t261 = c[0] * t224;
        const P t262 = c[1] * t229;
        const P t263 = t261 - t262;
        const P t264 = t263 + t219;
        const P t265 = c[2] * t223;
        const P t266 = c[3] * t228;
        const P t267 = t265 - t266;
        const P t268 = t264 - t267;
        const P t269 = t264 + t267;
        const P x38 = io.pair(38);
        const P x34 = io.pair(34);
        // real block of 5, multiplier 2
        const P t270 = x38 + x34;
        const P t271 = x38 - x34;
        const P x14 = io.pair(14);
        const P x42 = io.pair(42);
        const P t272 = x14 + x42;
        const P t273 = x14 - x42;
        const P t274 = t270 + t272;
        const P x26 = io.pair(26);
        const P t275 = t274 + x26;
        const P t276 = c[0] * t270;
        const P t277 = x26 - t276;
        const P t278 = c[1] * t272;
        const P t279 = t277 + t278;
        const P t280 = c[2] * t271;
        const P t281 = c[3] * t273;
        const P t282 = t280 + t281;
        const P t283 = c[1] * t270;
        const P t284 = c[0] * t272;
        const P t285 = t283 - t284;
        const P t286 = t285 + x26;
        const P t287 = c[3] * t271;
        const P t288 = c[2] * t273;
        const P t289 = t287 - t288;
        const P x6 = io.pair(6);
        const P x10 = io.pair(10);
        // real block of 5, multiplier 2
        const P t290 = x6 + x10;
        const P t291 = x6 - x10;
        const P x30 = io.pair(30);
        const P x2 = io.pair(2);
        const P t292 = x30 + x2;
        const P t293 = x30 - x2;
        const P t294 = t290 + t292;
        const P x18 = io.pair(18);
        const P t295 = t294 + x18;
        const P t296 = c[0] * t290;
        const P t297 = x18 - t296;
        const P t298 = c[1] * t292;
        const P t299 = t297 + t298;
        const P t300 = c[2] * t291;
        const P t301 = c[3] * t293;
        const P t302 = t300 + t301;
        const P t303 = c[1] * t290;
        const P t304 = c[0] * t292;
        const P t305 = t303 - t304;
        const P t306 = t305 + x18;
        const P t307 = c[3] * t291;
        const P t308 = c[2] * t293;
        const P t309 = t307 - t308;
        // real block of 2
        const P t310 = t275 + t295;
        const P t311 = t275 - t295;
        // complex block of 2
        const P t312 = t279 + t299;
        const P t313 = t282 + t302;
        const P t314 = t279 - t299;
        const P t315 = t302 - t282;
        // complex block of 2
        const P t316 = t286 + t306;
        const P t317 = t289 + t309;
        const P t318 = t286 - t306;
        const P t319 = t289 - t309;
        const P x22 = io.pair(22);
        // complex block of 11, multiplier 4
        const P t320 = x22 + t310;
        const P t321 = c[12] * t310;
        const P t322 = x22 - t321;
        const P t323 = shuffled<1, 0>(t319);
        const P t324 = P(-c[4], c[4]) * t323;
        const P t325 = shuffled<1, 0>(t318);
        const P t326 = P(c[5], -c[5]) * t325;
        const P t327 = t324 + t326;
        const P t328 = c[5] * t323;
        const P t329 = c[4] * t325;
        const P t330 = t328 + t329;
        const P t331 = c[6] * t312;
        const P t332 = c[7] * t313;
        const P t333 = t331 + t332;
        const P t334 = c[6] * t313;
        const P t335 = c[7] * t312;
        const P t336 = t334 - t335;
        const P t337 = shuffled<1, 0>(t315);
        const P t338 = P(-c[8], c[8]) * t337;
        const P t339 = shuffled<1, 0>(t314);
        const P t340 = P(c[9], -c[9]) * t339;
        const P t341 = t338 + t340;
        const P t342 = c[9] * t337;
        const P t343 = c[8] * t339;
        const P t344 = t342 + t343;
        const P t345 = c[10] * t316;
        const P t346 = c[11] * t317;
        const P t347 = t345 + t346;
        const P t348 = c[11] * t316;
        const P t349 = c[10] * t317;
        const P t350 = t348 - t349;
        const P t351 = shuffled<1, 0>(t311);
        const P t352 = P(c[13], -c[13]) * t351;
        // spectrum block of 2
        const P t353 = t322 + t352;
        const P t354 = t322 - t352;
        const P t355 = flipped<0, 1>(t344);
        // complex block of 2
        const P t356 = t336 + t355;
        const P t357 = t341 - t333;
        const P t358 = t336 - t355;
        const P t359 = t333 + t341;
        const P t360 = flipped<0, 1>(t330);
        // complex block of 2
        const P t361 = t350 + t360;
        const P t362 = t327 - t347;
        const P t363 = t350 - t360;
        const P t364 = t347 + t327;
        // spectrum block of 5, multiplier 2
        const P t365 = t357 + t362;
        const P t366 = t365 + t353;
        const P t367 = c[1] * t357;
        const P t368 = c[0] * t362;
        const P t369 = t367 - t368;
        const P t370 = t369 + t353;
        const P t371 = c[3] * t356;
        const P t372 = c[2] * t361;
        const P t373 = t371 + t372;
        const P t374 = t370 - t373;
        const P t375 = t370 + t373;
        const P t376 = c[0] * t357;
        const P t377 = t353 - t376;
        const P t378 = c[1] * t362;
        const P t379 = t377 + t378;
        const P t380 = c[2] * t356;
        const P t381 = c[3] * t361;
        const P t382 = t380 - t381;
        const P t383 = t379 - t382;
        const P t384 = t379 + t382;
        // spectrum block of 5, multiplier 2
        const P t385 = t359 + t364;
        const P t386 = t354 - t385;
        const P t387 = c[1] * t359;
        const P t388 = t354 - t387;
        const P t389 = c[0] * t364;
        const P t390 = t388 + t389;
        const P t391 = c[3] * t358;
        const P t392 = c[2] * t363;
        const P t393 = t391 + t392;
        const P t394 = t390 - t393;
        const P t395 = t390 + t393;
        const P t396 = c[0] * t359;
        const P t397 = c[1] * t364;
        const P t398 = t396 - t397;
        const P t399 = t398 + t354;
        const P t400 = c[2] * t358;
        const P t401 = c[3] * t363;
        const P t402 = t400 - t401;
        const P t403 = t399 - t402;
        const P t404 = t399 + t402;
        const P x5 = io.pair(5);
        const P x1 = io.pair(1);
        // real block of 5, multiplier 2
        const P t405 = x5 + x1;
        const P t406 = x5 - x1;
        const P x25 = io.pair(25);
        const P x9 = io.pair(9);
        const P t407 = x25 + x9;
        const P t408 = x25 - x9;
        const P t409 = t405 + t407;
        const P x37 = io.pair(37);
        const P t410 = t409 + x37;
        const P t411 = c[0] * t405;
        const P t412 = x37 - t411;
        const P t413 = c[1] * t407;
        const P t414 = t412 + t413;
        const P t415 = c[2] * t406;
        const P t416 = c[3] * t408;
        const P t417 = t415 + t416;
        const P t418 = c[1] * t405;
        const P t419 = c[0] * t407;
        const P t420 = t418 - t419;
        const P t421 = t420 + x37;
        const P t422 = c[3] * t406;
        const P t423 = c[2] * t408;
        const P t424 = t422 - t423;
        const P x17 = io.pair(17);
        const P x21 = io.pair(21);
        // real block of 5, multiplier 2
        const P t425 = x17 + x21;
        const P t426 = x17 - x21;
        const P x41 = io.pair(41);
        const P x13 = io.pair(13);
        const P t427 = x41 + x13;
        const P t428 = x41 - x13;
        const P t429 = t425 + t427;
        const P x29 = io.pair(29);
        const P t430 = t429 + x29;
        const P t431 = c[0] * t425;
        const P t432 = x29 - t431;
        const P t433 = c[1] * t427;
        const P t434 = t432 + t433;
        const P t435 = c[2] * t426;
        const P t436 = c[3] * t428;
        const P t437 = t435 + t436;
        const P t438 = c[1] * t425;
        const P t439 = c[0] * t427;
        const P t440 = t438 - t439;
        const P t441 = t440 + x29;
        const P t442 = c[3] * t426;
        const P t443 = c[2] * t428;
        const P t444 = t442 - t443;
        // real block of 2
        const P t445 = t410 + t430;
        const P t446 = t410 - t430;
        // complex block of 2
        const P t447 = t414 + t434;
        const P t448 = t417 + t437;
        const P t449 = t414 - t434;
        const P t450 = t437 - t417;
        // complex block of 2
        const P t451 = t421 + t441;
        const P t452 = t424 + t444;
        const P t453 = t421 - t441;
        const P t454 = t424 - t444;
        const P x33 = io.pair(33);
        // complex block of 11, multiplier 4
        const P t455 = x33 + t445;
        const P t456 = c[12] * t445;
        const P t457 = x33 - t456;
        const P t458 = shuffled<1, 0>(t454);
        const P t459 = P(-c[4], c[4]) * t458;
        const P t460 = shuffled<1, 0>(t453);
        const P t461 = P(c[5], -c[5]) * t460;
        const P t462 = t459 + t461;
        const P t463 = c[5] * t458;
        const P t464 = c[4] * t460;
        const P t465 = t463 + t464;
        const P t466 = c[6] * t447;
        const P t467 = c[7] * t448;
        const P t468 = t466 + t467;
        const P t469 = c[6] * t448;
        const P t470 = c[7] * t447;
        const P t471 = t469 - t470;
        const P t472 = shuffled<1, 0>(t450);
        const P t473 = P(-c[8], c[8]) * t472;
        const P t474 = shuffled<1, 0>(t449);
        const P t475 = P(c[9], -c[9]) * t474;
        const P t476 = t473 + t475;
        const P t477 = c[9] * t472;
        const P t478 = c[8] * t474;
        const P t479 = t477 + t478;
        const P t480 = c[10] * t451;
        const P t481 = c[11] * t452;
        const P t482 = t480 + t481;
        const P t483 = c[11] * t451;
        const P t484 = c[10] * t452;
        const P t485 = t483 - t484;
        const P t486 = shuffled<1, 0>(t446);
        const P t487 = P(c[13], -c[13]) * t486;
        // spectrum block of 2
        const P t488 = t457 + t487;
        const P t489 = t457 - t487;
        const P t490 = flipped<0, 1>(t479);
        // complex block of 2
        const P t491 = t471 + t490;
        const P t492 = t476 - t468;
        const P t493 = t471 - t490;
        const P t494 = t468 + t476;
        const P t495 = flipped<0, 1>(t465);
        // complex block of 2
        const P t496 = t485 + t495;
        const P t497 = t462 - t482;
        const P t498 = t485 - t495;
        const P t499 = t482 + t462;
        // spectrum block of 5, multiplier 2
        const P t500 = t492 + t497;
        const P t501 = t500 + t488;
        const P t502 = c[1] * t492;
        const P t503 = c[0] * t497;
        const P t504 = t502 - t503;
        const P t505 = t504 + t488;
        const P t506 = c[3] * t491;
        const P t507 = c[2] * t496;
        const P t508 = t506 + t507;
        const P t509 = t505 - t508;
        const P t510 = t505 + t508;
        const P t511 = c[0] * t492;
        const P t512 = t488 - t511;
        const P t513 = c[1] * t497;
        const P t514 = t512 + t513;
        const P t515 = c[2] * t491;
        const P t516 = c[3] * t496;
        const P t517 = t515 - t516;
        const P t518 = t514 - t517;
        const P t519 = t514 + t517;
        // spectrum block of 5, multiplier 2
        const P t520 = t494 + t499;
        const P t521 = t489 - t520;
        const P t522 = c[1] * t494;
        const P t523 = t489 - t522;
        const P t524 = c[0] * t499;
        const P t525 = t523 + t524;
        const P t526 = c[3] * t493;
        const P t527 = c[2] * t498;
        const P t528 = t526 + t527;
        const P t529 = t525 - t528;
        const P t530 = t525 + t528;
        const P t531 = c[0] * t494;
        const P t532 = c[1] * t499;
        const P t533 = t531 - t532;
        const P t534 = t533 + t489;
        const P t535 = c[2] * t493;
        const P t536 = c[3] * t498;
        const P t537 = t535 - t536;
        const P t538 = t534 - t537;
        const P t539 = t534 + t537;
        // complex block of 2
        const P t540 = t50 + t320;
        const P t541 = t50 - t320;
        // complex block of 2
        const P t542 = t185 + t455;
        const P t543 = t185 - t455;
        // complex block of 2
        const P t544 = t540 + t542;
        io.pair(0, t544);
        const P t545 = t540 - t542;
        io.pair(22, t545);
        const P t546 = shuffled<1, 0>(t543);
        const P t547 = flipped<1, 0>(t546);
        // complex block of 2
        const P t548 = t541 + t547;
        io.pair(11, t548);
        const P t549 = t541 - t547;
        io.pair(33, t549);
        // complex block of 2
        const P t550 = t96 + t366;
        const P t551 = t96 - t366;
        // complex block of 2
        const P t552 = t231 + t501;
        const P t553 = t231 - t501;
        // complex block of 2
        const P t554 = t550 + t552;
        io.pair(4, t554);
        const P t555 = t550 - t552;
        io.pair(26, t555);
        const P t556 = shuffled<1, 0>(t553);
        const P t557 = flipped<1, 0>(t556);
        // complex block of 2
        const P t558 = t551 + t557;
        io.pair(15, t558);
        const P t559 = t551 - t557;
        io.pair(37, t559);
        // complex block of 2
        const P t560 = t125 + t395;
        const P t561 = t125 - t395;
        // complex block of 2
        const P t562 = t260 + t530;
        const P t563 = t260 - t530;
        // complex block of 2
        const P t564 = t560 + t562;
        io.pair(8, t564);
        const P t565 = t560 - t562;
        io.pair(30, t565);
        const P t566 = shuffled<1, 0>(t563);
        const P t567 = flipped<1, 0>(t566);
        // complex block of 2
        const P t568 = t561 + t567;
        io.pair(19, t568);
        const P t569 = t561 - t567;
        io.pair(41, t569);
        // complex block of 2
        const P t570 = t113 + t383;
        const P t571 = t113 - t383;
        // complex block of 2
        const P t572 = t248 + t518;
        const P t573 = t248 - t518;
        // complex block of 2
        const P t574 = t570 + t572;
        io.pair(12, t574);
        const P t575 = t570 - t572;
        io.pair(34, t575);
        const P t576 = shuffled<1, 0>(t573);
        const P t577 = flipped<1, 0>(t576);
        // complex block of 2
        const P t578 = t571 + t577;
        io.pair(23, t578);
        const P t579 = t571 - t577;
        io.pair(1, t579);
        // complex block of 2
        const P t580 = t114 + t384;
        const P t581 = t114 - t384;
        // complex block of 2
        const P t582 = t249 + t519;
        const P t583 = t249 - t519;
        // complex block of 2
        const P t584 = t580 + t582;
        io.pair(16, t584);
        const P t585 = t580 - t582;
        io.pair(38, t585);
        const P t586 = shuffled<1, 0>(t583);
        const P t587 = flipped<1, 0>(t586);
        // complex block of 2
        const P t588 = t581 + t587;
        io.pair(27, t588);
        const P t589 = t581 - t587;
        io.pair(5, t589);
        // complex block of 2
        const P t590 = t104 + t374;
        const P t591 = t104 - t374;
        // complex block of 2
        const P t592 = t239 + t509;
        const P t593 = t239 - t509;
        // complex block of 2
        const P t594 = t590 + t592;
        io.pair(20, t594);
        const P t595 = t590 - t592;
        io.pair(42, t595);
        const P t596 = shuffled<1, 0>(t593);
        const P t597 = flipped<1, 0>(t596);
        // complex block of 2
        const P t598 = t591 + t597;
        io.pair(31, t598);
        const P t599 = t591 - t597;
        io.pair(9, t599);
        // complex block of 2
        const P t600 = t124 + t394;
        const P t601 = t124 - t394;
        // complex block of 2
        const P t602 = t259 + t529;
        const P t603 = t259 - t529;
        // complex block of 2
        const P t604 = t600 + t602;
        io.pair(24, t604);
        const P t605 = t600 - t602;
        io.pair(2, t605);
        const P t606 = shuffled<1, 0>(t603);
        const P t607 = flipped<1, 0>(t606);
        // complex block of 2
        const P t608 = t601 + t607;
        io.pair(35, t608);
        const P t609 = t601 - t607;
        io.pair(13, t609);
        // complex block of 2
        const P t610 = t134 + t404;
        const P t611 = t134 - t404;
        // complex block of 2
        const P t612 = t269 + t539;
        const P t613 = t269 - t539;
        // complex block of 2
        const P t614 = t610 + t612;
        io.pair(28, t614);
        const P t615 = t610 - t612;
        io.pair(6, t615);
        const P t616 = shuffled<1, 0>(t613);
        const P t617 = flipped<1, 0>(t616);
        // complex block of 2
        const P t618 = t611 + t617;
        io.pair(39, t618);
        const P t619 = t611 - t617;
        io.pair(17, t619);
        // complex block of 2
        const P t620 = t133 + t403;
        const P t621 = t133 - t403;
        // complex block of 2
        const P t622 = t268 + t538;
        const P t623 = t268 - t538;
        // complex block of 2
        const P t624 = t620 + t622;
        io.pair(32, t624);
        const P t625 = t620 - t622;
        io.pair(10, t625);
        const P t626 = shuffled<1, 0>(t623);
        const P t627 = flipped<1, 0>(t626);
        // complex block of 2
        const P t628 = t621 + t627;
        io.pair(43, t628);
        const P t629 = t621 - t627;
        io.pair(21, t629);
        // complex block of 2
        const P t630 = t105 + t375;
        const P t631 = t105 - t375;
        // complex block of 2
        const P t632 = t240 + t510;
        const P t633 = t240 - t510;
        // complex block of 2
        const P t634 = t630 + t632;
        io.pair(36, t634);
        const P t635 = t630 - t632;
        io.pair(14, t635);
        const P t636 = shuffled<1, 0>(t633);
        const P t637 = flipped<1, 0>(t636);
        // complex block of 2
        const P t638 = t631 + t637;
        io.pair(3, t638);
        const P t639 = t631 - t637;
        io.pair(25, t639);
        // complex block of 2
        const P t640 = t116 + t386;
        const P t641 = t116 - t386;
        // complex block of 2
        const P t642 = t251 + t521;
        const P t643 = t251 - t521;
        // complex block of 2
        const P t644 = t640 + t642;
        io.pair(40, t644);
        const P t645 = t640 - t642;
        io.pair(18, t645);
        const P t646 = shuffled<1, 0>(t643);
        const P t647 = flipped<1, 0>(t646);
        // complex block of 2
        const P t648 = t641 + t647;
        io.pair(7, t648);
        const P t649 = t641 - t647;
        io.pair(29, t649);
    }
};

}  // namespace zulg
