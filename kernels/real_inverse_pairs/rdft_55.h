// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 55.
// Inverse DFT to 55 real points, prime-factor 5, 11; two lanes to a register.
// 159 sums, 107 differences, 203 products of registers, which do the 959 steps of the graph, those with
// `scale` included; 63 shuffles, 21 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<55> {
    static constexpr int steps = 959;  // with `scale`
    static constexpr double inverseRoot = 0.13483997249264842;  // 1/sqrt(55), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        2.0,  // c[4]: 2
        0.4015958813743768,  // c[5]: Q[1] of 11
        0.527940098934659,  // c[6]: P[1] of 11
        0.21991735259851847,  // c[7]: -P[2] of 11
        0.6258085634010283,  // c[8]: Q[2] of 11
        0.35166595918026655,  // c[9]: -Q[3] of 11
        0.5624331543870997,  // c[10]: -P[3] of 11
        0.6395756210159789,  // c[11]: -P[4] of 11
        0.1759062960840939,  // c[12]: -Q[4] of 11
        0.1,  // c[13]: 1/10
        0.33166247903553997,  // c[14]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x11 = io.pair(11);
        // doubled bins
        const P t0 = c[4] * x11;
        const V t1 = part<0>(t0);
        const P x22 = io.pair(22);
        const P t2 = c[4] * x22;
        const V t3 = part<0>(t2);
        // spectrum block of 5
        const V t4 = t1 + t3;
        const V x0r = io.re(0);
        const V t5 = t4 + x0r;
        const V t6 = c[0] * t1;
        const V t7 = c[1] * t3;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0r;
        const V t10 = part<1>(t0);
        const V t11 = c[2] * t10;
        const V t12 = part<1>(t2);
        const V t13 = c[3] * t12;
        const V t14 = t11 + t13;
        const V t15 = t9 - t14;
        const V t16 = t9 + t14;
        const V t17 = c[1] * t1;
        const V t18 = x0r - t17;
        const V t19 = c[0] * t3;
        const V t20 = t18 + t19;
        const V t21 = c[3] * t10;
        const V t22 = c[2] * t12;
        const V t23 = t21 - t22;
        const V t24 = t20 - t23;
        const V t25 = t20 + t23;
        const P x16 = io.pair(16);
        // doubled bins
        const P t26 = c[4] * x16;
        const P x6 = io.pair(6);
        const P t27 = P(c[4], -c[4]) * x6;
        // complex block of 5
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P x27 = io.pair(27);
        // doubled bins
        const P t30 = c[4] * x27;
        const P x17 = io.pair(17);
        const P t31 = P(c[4], -c[4]) * x17;
        // complex block of 5
        const P t32 = t30 + t31;
        const P t33 = flipped<0, 1>(t31);
        const P t34 = flipped<1, 0>(t30);
        const P t35 = t33 + t34;
        const P t36 = t28 + t32;
        const P x5 = io.pair(5);
        // doubled bins
        const P t37 = c[4] * x5;
        // complex block of 5
        const P t38 = t36 + t37;
        const P t39 = c[0] * t28;
        const P t40 = c[1] * t32;
        const P t41 = t39 - t40;
        const P t42 = t41 + t37;
        const P t43 = c[2] * t29;
        const P t44 = P(-c[3], c[3]) * t35;
        const P t45 = t43 + t44;
        const P t46 = shuffled<1, 0>(t45);
        const P t47 = flipped<1, 0>(t46);
        const P t48 = t42 + t47;
        const P t49 = t42 - t47;
        const P t50 = c[1] * t28;
        const P t51 = t37 - t50;
        const P t52 = c[0] * t32;
        const P t53 = t51 + t52;
        const P t54 = c[3] * t29;
        const P t55 = P(c[2], -c[2]) * t35;
        const P t56 = t54 + t55;
        const P t57 = shuffled<1, 0>(t56);
        const P t58 = flipped<1, 0>(t57);
        const P t59 = t53 + t58;
        const P t60 = t53 - t58;
        const P x21 = io.pair(21);
        // doubled bins
        const P t61 = c[4] * x21;
        const P x1 = io.pair(1);
        const P t62 = P(c[4], -c[4]) * x1;
        // complex block of 5
        const P t63 = t61 + t62;
        const P t64 = t61 - t62;
        const P x12 = io.pair(12);
        // doubled bins
        const P t65 = c[4] * x12;
        const P x23 = io.pair(23);
        const P t66 = c[4] * x23;
        // complex block of 5
        const P t67 = t65 + t66;
        const P t68 = shuffled<0, 3>(t65, t66);
        const P t69 = shuffled<0, 3>(t66, t65);
        const P t70 = t68 - t69;
        const P t71 = flipped<0, 1>(t67);
        const P t72 = t63 + t71;
        const P x10 = io.pair(10);
        // doubled bins
        const P t73 = c[4] * x10;
        // complex block of 5
        const P t74 = t72 + t73;
        const P t75 = c[0] * t63;
        const P t76 = P(-c[1], c[1]) * t67;
        const P t77 = t75 + t76;
        const P t78 = t77 + t73;
        const P t79 = c[2] * t64;
        const P t80 = c[3] * t70;
        const P t81 = t79 - t80;
        const P t82 = shuffled<1, 0>(t81);
        const P t83 = flipped<1, 0>(t82);
        const P t84 = t78 + t83;
        const P t85 = t78 - t83;
        const P t86 = c[1] * t63;
        const P t87 = t73 - t86;
        const P t88 = P(c[0], -c[0]) * t67;
        const P t89 = t87 + t88;
        const P t90 = c[3] * t64;
        const P t91 = c[2] * t70;
        const P t92 = t90 + t91;
        const P t93 = shuffled<1, 0>(t92);
        const P t94 = flipped<1, 0>(t93);
        const P t95 = t89 + t94;
        const P t96 = t89 - t94;
        const P x26 = io.pair(26);
        // doubled bins
        const P t97 = c[4] * x26;
        const P x4 = io.pair(4);
        const P t98 = c[4] * x4;
        // complex block of 5
        const P t99 = t97 + t98;
        const P t100 = t97 - t98;
        const P x7 = io.pair(7);
        // doubled bins
        const P t101 = c[4] * x7;
        const P x18 = io.pair(18);
        const P t102 = c[4] * x18;
        // complex block of 5
        const P t103 = t101 + t102;
        const P t104 = shuffled<0, 3>(t101, t102);
        const P t105 = shuffled<0, 3>(t102, t101);
        const P t106 = t104 - t105;
        const P t107 = flipped<0, 1>(t103);
        const P t108 = t99 + t107;
        const P x15 = io.pair(15);
        // doubled bins
        const P t109 = c[4] * x15;
        // complex block of 5
        const P t110 = t108 + t109;
        const P t111 = c[0] * t99;
        const P t112 = P(-c[1], c[1]) * t103;
        const P t113 = t111 + t112;
        const P t114 = t113 + t109;
        const P t115 = c[2] * t100;
        const P t116 = c[3] * t106;
        const P t117 = t115 - t116;
        const P t118 = shuffled<1, 0>(t117);
        const P t119 = flipped<1, 0>(t118);
        const P t120 = t114 + t119;
        const P t121 = t114 - t119;
        const P t122 = c[1] * t99;
        const P t123 = t109 - t122;
        const P t124 = P(c[0], -c[0]) * t103;
        const P t125 = t123 + t124;
        const P t126 = c[3] * t100;
        const P t127 = c[2] * t106;
        const P t128 = t126 + t127;
        const P t129 = shuffled<1, 0>(t128);
        const P t130 = flipped<1, 0>(t129);
        const P t131 = t125 + t130;
        const P t132 = t125 - t130;
        const P x9 = io.pair(9);
        // doubled bins
        const P t133 = c[4] * x9;
        const P x24 = io.pair(24);
        const P t134 = P(c[4], -c[4]) * x24;
        // complex block of 5
        const P t135 = t133 + t134;
        const P t136 = flipped<0, 1>(t134);
        const P t137 = flipped<1, 0>(t133);
        const P t138 = t136 + t137;
        const P x2 = io.pair(2);
        // doubled bins
        const P t139 = c[4] * x2;
        const P x13 = io.pair(13);
        const P t140 = c[4] * x13;
        // complex block of 5
        const P t141 = t139 + t140;
        const P t142 = shuffled<0, 3>(t139, t140);
        const P t143 = shuffled<0, 3>(t140, t139);
        const P t144 = t142 - t143;
        const P t145 = flipped<0, 1>(t141);
        const P t146 = t135 + t145;
        const P x20 = io.pair(20);
        // doubled bins
        const P t147 = c[4] * x20;
        // complex block of 5
        const P t148 = t146 + t147;
        const P t149 = c[0] * t135;
        const P t150 = P(-c[1], c[1]) * t141;
        const P t151 = t149 + t150;
        const P t152 = t151 + t147;
        const P t153 = c[2] * t138;
        const P t154 = P(-c[3], c[3]) * t144;
        const P t155 = t153 + t154;
        const P t156 = shuffled<1, 0>(t155);
        const P t157 = t152 + t156;
        const P t158 = t152 - t156;
        const P t159 = c[1] * t135;
        const P t160 = t147 - t159;
        const P t161 = P(c[0], -c[0]) * t141;
        const P t162 = t160 + t161;
        const P t163 = c[2] * t144;
        const P t164 = P(c[3], -c[3]) * t138;
        const P t165 = t163 + t164;
        const P t166 = shuffled<1, 0>(t165);
        const P t167 = flipped<1, 0>(t166);
        const P t168 = t162 + t167;
        const P t169 = t162 - t167;
        const P x14 = io.pair(14);
        // doubled bins
        const P t170 = c[4] * x14;
        const P x19 = io.pair(19);
        const P t171 = P(c[4], -c[4]) * x19;
        // complex block of 5
        const P t172 = t170 + t171;
        const P t173 = flipped<0, 1>(t171);
        const P t174 = flipped<1, 0>(t170);
        const P t175 = t173 + t174;
        const P x3 = io.pair(3);
        // doubled bins
        const P t176 = c[4] * x3;
        const P x8 = io.pair(8);
        const P t177 = P(c[4], -c[4]) * x8;
        // complex block of 5
        const P t178 = t176 + t177;
        const P t179 = t176 - t177;
        const P t180 = t172 + t178;
        const P x25 = io.pair(25);
        // doubled bins
        const P t181 = c[4] * x25;
        // complex block of 5
        const P t182 = t180 + t181;
        const P t183 = c[0] * t172;
        const P t184 = c[1] * t178;
        const P t185 = t183 - t184;
        const P t186 = t185 + t181;
        const P t187 = c[2] * t175;
        const P t188 = P(-c[3], c[3]) * t179;
        const P t189 = t187 + t188;
        const P t190 = shuffled<1, 0>(t189);
        const P t191 = t186 + t190;
        const P t192 = t186 - t190;
        const P t193 = c[1] * t172;
        const P t194 = t181 - t193;
        const P t195 = c[0] * t178;
        const P t196 = t194 + t195;
        const P t197 = c[2] * t179;
        const P t198 = P(c[3], -c[3]) * t175;
        const P t199 = t197 + t198;
        const P t200 = shuffled<1, 0>(t199);
        const P t201 = flipped<1, 0>(t200);
        const P t202 = t196 + t201;
        const P t203 = t196 - t201;
        const P t204 = shuffled<0, 2>(t74, t84);
        const P t205 = shuffled<0, 2>(t182, t191);
        // real block of 5
        const P t206 = t204 + t205;
        const P t207 = t204 - t205;
        const P t208 = shuffled<0, 2>(t110, t120);
        const P t209 = shuffled<0, 2>(t148, t157);
        const P t210 = t208 + t209;
        const P t211 = t208 - t209;
        const P t212 = t206 + t210;
        const P t213 = shuffled<0, 2>(t38, t48);
        const P t214 = t212 + t213;
        const P t215 = c[0] * t206;
        const P t216 = c[1] * t210;
        const P t217 = t215 - t216;
        const P t218 = t217 + t213;
        const P t219 = c[3] * t211;
        const P t220 = c[2] * t207;
        const P t221 = t219 - t220;
        const P t222 = c[1] * t206;
        const P t223 = t213 - t222;
        const P t224 = c[0] * t210;
        const P t225 = t223 + t224;
        const P t226 = c[3] * t207;
        const P t227 = c[2] * t211;
        const P t228 = t226 + t227;
        const P t229 = shuffled<1, 3>(t182, t191);
        const P t230 = shuffled<1, 3>(t74, t84);
        // real block of 5
        const P t231 = t229 - t230;
        const P t232 = t230 + t229;
        const P t233 = shuffled<1, 3>(t110, t120);
        const P t234 = shuffled<1, 3>(t148, t157);
        const P t235 = t233 + t234;
        const P t236 = t233 - t234;
        const P t237 = t231 + t235;
        const P t238 = shuffled<1, 3>(t38, t48);
        const P t239 = t237 + t238;
        const P t240 = c[0] * t231;
        const P t241 = c[1] * t235;
        const P t242 = t240 - t241;
        const P t243 = t242 + t238;
        const P t244 = c[2] * t232;
        const P t245 = c[3] * t236;
        const P t246 = t244 + t245;
        const P t247 = c[1] * t231;
        const P t248 = t238 - t247;
        const P t249 = c[0] * t235;
        const P t250 = t248 + t249;
        const P t251 = c[3] * t232;
        const P t252 = c[2] * t236;
        const P t253 = t251 - t252;
        const P t254 = joined(t5, t15);
        // spectrum block of 11, multiplier 5
        const P t255 = c[13] * t214;
        const P t256 = t254 - t255;
        const P t257 = c[5] * t250;
        const P t258 = c[6] * t253;
        const P t259 = t257 + t258;
        const P t260 = c[6] * t250;
        const P t261 = c[5] * t253;
        const P t262 = t260 - t261;
        const P t263 = c[7] * t218;
        const P t264 = c[8] * t221;
        const P t265 = t263 + t264;
        const P t266 = c[8] * t218;
        const P t267 = c[7] * t221;
        const P t268 = t266 - t267;
        const P t269 = c[9] * t243;
        const P t270 = c[10] * t246;
        const P t271 = t269 + t270;
        const P t272 = c[9] * t246;
        const P t273 = c[10] * t243;
        const P t274 = t272 - t273;
        const P t275 = c[11] * t225;
        const P t276 = c[12] * t228;
        const P t277 = t275 + t276;
        const P t278 = c[11] * t228;
        const P t279 = c[12] * t225;
        const P t280 = t278 - t279;
        const P t281 = c[14] * t239;
        // spectrum block of 2
        const P t282 = t256 - t281;
        const P t283 = t256 + t281;
        // complex block of 2
        const P t284 = t268 - t274;
        const P t285 = t265 + t271;
        const P t286 = t268 + t274;
        const P t287 = t271 - t265;
        // complex block of 2
        const P t288 = t280 - t262;
        const P t289 = t259 - t277;
        const P t290 = t280 + t262;
        const P t291 = t277 + t259;
        // spectrum block of 5, multiplier 2
        const P t292 = t289 - t285;
        const P t293 = t292 + t282;
        io.out(5, 16, t293);
        const P t294 = c[0] * t285;
        const P t295 = t282 - t294;
        const P t296 = c[1] * t289;
        const P t297 = t295 - t296;
        const P t298 = c[2] * t284;
        const P t299 = c[3] * t288;
        const P t300 = t298 + t299;
        const P t301 = t297 - t300;
        io.out(25, 36, t301);
        const P t302 = t297 + t300;
        io.out(45, 1, t302);
        const P t303 = c[1] * t285;
        const P t304 = c[0] * t289;
        const P t305 = t303 + t304;
        const P t306 = t305 + t282;
        const P t307 = c[3] * t284;
        const P t308 = c[2] * t288;
        const P t309 = t307 - t308;
        const P t310 = t306 - t309;
        io.out(15, 26, t310);
        const P t311 = t306 + t309;
        io.out(20, 31, t311);
        // spectrum block of 5, multiplier 2
        const P t312 = t287 - t291;
        const P t313 = t312 + t283;
        io.out(50, 6, t313);
        const P t314 = c[0] * t287;
        const P t315 = c[1] * t291;
        const P t316 = t314 + t315;
        const P t317 = t316 + t283;
        const P t318 = c[2] * t286;
        const P t319 = c[3] * t290;
        const P t320 = t318 + t319;
        const P t321 = t317 - t320;
        io.out(30, 41, t321);
        const P t322 = t317 + t320;
        io.out(10, 21, t322);
        const P t323 = c[1] * t287;
        const P t324 = t283 - t323;
        const P t325 = c[0] * t291;
        const P t326 = t324 - t325;
        const P t327 = c[3] * t286;
        const P t328 = c[2] * t290;
        const P t329 = t327 - t328;
        const P t330 = t326 - t329;
        io.out(40, 51, t330);
        const P t331 = t326 + t329;
        io.out(35, 46, t331);
        // spectrum block of 11, multiplier 5
        const P t332 = t254 + t214;
        io.out(0, 11, t332);
        const P t333 = shuffled<0, 2>(t95, t96);
        const P t334 = shuffled<0, 2>(t202, t203);
        // real block of 5
        const P t335 = t333 + t334;
        const P t336 = t333 - t334;
        const P t337 = shuffled<0, 2>(t131, t132);
        const P t338 = shuffled<0, 2>(t168, t169);
        const P t339 = t337 + t338;
        const P t340 = t337 - t338;
        const P t341 = t335 + t339;
        const P t342 = shuffled<0, 2>(t59, t60);
        const P t343 = t341 + t342;
        const P t344 = c[0] * t335;
        const P t345 = c[1] * t339;
        const P t346 = t344 - t345;
        const P t347 = t346 + t342;
        const P t348 = c[3] * t340;
        const P t349 = c[2] * t336;
        const P t350 = t348 - t349;
        const P t351 = c[1] * t335;
        const P t352 = t342 - t351;
        const P t353 = c[0] * t339;
        const P t354 = t352 + t353;
        const P t355 = c[3] * t336;
        const P t356 = c[2] * t340;
        const P t357 = t355 + t356;
        const P t358 = shuffled<1, 3>(t202, t203);
        const P t359 = shuffled<1, 3>(t95, t96);
        // real block of 5
        const P t360 = t358 - t359;
        const P t361 = t359 + t358;
        const P t362 = shuffled<1, 3>(t131, t132);
        const P t363 = shuffled<1, 3>(t168, t169);
        const P t364 = t362 + t363;
        const P t365 = t362 - t363;
        const P t366 = t360 + t364;
        const P t367 = shuffled<1, 3>(t59, t60);
        const P t368 = t366 + t367;
        const P t369 = c[0] * t360;
        const P t370 = c[1] * t364;
        const P t371 = t369 - t370;
        const P t372 = t371 + t367;
        const P t373 = c[2] * t361;
        const P t374 = c[3] * t365;
        const P t375 = t373 + t374;
        const P t376 = c[1] * t360;
        const P t377 = t367 - t376;
        const P t378 = c[0] * t364;
        const P t379 = t377 + t378;
        const P t380 = c[3] * t361;
        const P t381 = c[2] * t365;
        const P t382 = t380 - t381;
        const P t383 = joined(t24, t25);
        // spectrum block of 11, multiplier 5
        const P t384 = c[13] * t343;
        const P t385 = t383 - t384;
        const P t386 = c[5] * t379;
        const P t387 = c[6] * t382;
        const P t388 = t386 + t387;
        const P t389 = c[6] * t379;
        const P t390 = c[5] * t382;
        const P t391 = t389 - t390;
        const P t392 = c[7] * t347;
        const P t393 = c[8] * t350;
        const P t394 = t392 + t393;
        const P t395 = c[8] * t347;
        const P t396 = c[7] * t350;
        const P t397 = t395 - t396;
        const P t398 = c[9] * t372;
        const P t399 = c[10] * t375;
        const P t400 = t398 + t399;
        const P t401 = c[9] * t375;
        const P t402 = c[10] * t372;
        const P t403 = t401 - t402;
        const P t404 = c[11] * t354;
        const P t405 = c[12] * t357;
        const P t406 = t404 + t405;
        const P t407 = c[11] * t357;
        const P t408 = c[12] * t354;
        const P t409 = t407 - t408;
        const P t410 = c[14] * t368;
        // spectrum block of 2
        const P t411 = t385 - t410;
        const P t412 = t385 + t410;
        // complex block of 2
        const P t413 = t397 - t403;
        const P t414 = t394 + t400;
        const P t415 = t397 + t403;
        const P t416 = t400 - t394;
        // complex block of 2
        const P t417 = t409 - t391;
        const P t418 = t388 - t406;
        const P t419 = t409 + t391;
        const P t420 = t406 + t388;
        // spectrum block of 5, multiplier 2
        const P t421 = t418 - t414;
        const P t422 = t421 + t411;
        io.out(27, 38, t422);
        const P t423 = c[0] * t414;
        const P t424 = t411 - t423;
        const P t425 = c[1] * t418;
        const P t426 = t424 - t425;
        const P t427 = c[2] * t413;
        const P t428 = c[3] * t417;
        const P t429 = t427 + t428;
        const P t430 = t426 - t429;
        io.out(47, 3, t430);
        const P t431 = t426 + t429;
        io.out(12, 23, t431);
        const P t432 = c[1] * t414;
        const P t433 = c[0] * t418;
        const P t434 = t432 + t433;
        const P t435 = t434 + t411;
        const P t436 = c[3] * t413;
        const P t437 = c[2] * t417;
        const P t438 = t436 - t437;
        const P t439 = t435 - t438;
        io.out(37, 48, t439);
        const P t440 = t435 + t438;
        io.out(42, 53, t440);
        // spectrum block of 5, multiplier 2
        const P t441 = t416 - t420;
        const P t442 = t441 + t412;
        io.out(17, 28, t442);
        const P t443 = c[0] * t416;
        const P t444 = c[1] * t420;
        const P t445 = t443 + t444;
        const P t446 = t445 + t412;
        const P t447 = c[2] * t415;
        const P t448 = c[3] * t419;
        const P t449 = t447 + t448;
        const P t450 = t446 - t449;
        io.out(52, 8, t450);
        const P t451 = t446 + t449;
        io.out(32, 43, t451);
        const P t452 = c[1] * t416;
        const P t453 = t412 - t452;
        const P t454 = c[0] * t420;
        const P t455 = t453 - t454;
        const P t456 = c[3] * t415;
        const P t457 = c[2] * t419;
        const P t458 = t456 - t457;
        const P t459 = t455 - t458;
        io.out(7, 18, t459);
        const P t460 = t455 + t458;
        io.out(2, 13, t460);
        // spectrum block of 11, multiplier 5
        const P t461 = t383 + t343;
        io.out(22, 33, t461);
        const P t462 = flipped<0, 1>(t85);
        // real block of 5
        const P t463 = t192 + t462;
        const P t464 = flipped<1, 0>(t192);
        const P t465 = t85 + t464;
        const P t466 = t121 + t158;
        const P t467 = t121 - t158;
        const P t468 = t463 + t466;
        const P t469 = t468 + t49;
        const P t470 = c[0] * t463;
        const P t471 = c[1] * t466;
        const P t472 = t470 - t471;
        const P t473 = t472 + t49;
        const P t474 = P(-c[2], c[2]) * t465;
        const P t475 = c[3] * t467;
        const P t476 = t474 + t475;
        const P t477 = c[1] * t463;
        const P t478 = t49 - t477;
        const P t479 = c[0] * t466;
        const P t480 = t478 + t479;
        const P t481 = c[3] * t465;
        const P t482 = P(c[2], -c[2]) * t467;
        const P t483 = t481 + t482;
        const V t484 = part<0>(t469);
        // spectrum block of 11, multiplier 5
        const V t485 = c[13] * t484;
        const V t486 = t16 - t485;
        const P t487 = shuffled<1, 3>(t483, t480);
        const P t488 = c[6] * t487;
        const P t489 = shuffled<1, 0>(t487);
        const P t490 = P(c[5], -c[5]) * t489;
        const P t491 = t488 + t490;
        const P t492 = shuffled<0, 2>(t476, t473);
        const P t493 = c[8] * t492;
        const P t494 = shuffled<1, 0>(t492);
        const P t495 = P(c[7], -c[7]) * t494;
        const P t496 = t493 + t495;
        const P t497 = shuffled<1, 3>(t473, t476);
        const P t498 = c[9] * t497;
        const P t499 = shuffled<1, 0>(t497);
        const P t500 = P(c[10], -c[10]) * t499;
        const P t501 = t498 + t500;
        const P t502 = shuffled<0, 2>(t480, t483);
        const P t503 = c[11] * t502;
        const P t504 = shuffled<1, 0>(t502);
        const P t505 = P(c[12], -c[12]) * t504;
        const P t506 = t503 + t505;
        const V t507 = part<1>(t469);
        const V t508 = c[14] * t507;
        // spectrum block of 2
        const V t509 = t486 - t508;
        const V t510 = t486 + t508;
        const P t511 = flipped<0, 1>(t501);
        // complex block of 2
        const P t512 = t496 + t511;
        const P t513 = flipped<1, 0>(t496);
        const P t514 = t513 + t501;
        const P t515 = shuffled<0, 3>(t491, t506);
        const P t516 = shuffled<0, 3>(t506, t491);
        // complex block of 2
        const P t517 = t515 - t516;
        const P t518 = t506 + t491;
        const P t519 = shuffled<0, 2>(t512, t514);
        // spectrum block of 5, multiplier 2
        const P t520 = c[0] * t519;
        const V t521 = part<0>(t520);
        const V t522 = t509 - t521;
        const P t523 = c[1] * t519;
        const V t524 = part<0>(t523);
        const V t525 = part<0>(t517);
        const V t526 = c[0] * t525;
        const V t527 = t524 + t526;
        const P t528 = shuffled<0, 3>(t517, t519);
        const P t529 = shuffled<0, 2>(t519, t518);
        const P t530 = t528 - t529;
        const P t531 = joined(t509, t510);
        const P t532 = t530 + t531;
        io.out(49, 39, t532);
        const V t533 = part<1>(t520);
        const V t534 = part<0>(t518);
        // spectrum block of 5, multiplier 2
        const V t535 = c[1] * t534;
        const V t536 = t533 + t535;
        const P t537 = joined(t522, t536);
        // spectrum block of 5, multiplier 2
        const V t538 = -c[1] * t525;
        const P t539 = joined(t538, t510);
        const P t540 = t537 + t539;
        const P t541 = shuffled<1, 3>(t512, t514);
        const P t542 = c[2] * t541;
        const P t543 = shuffled<1, 3>(t517, t518);
        const P t544 = c[3] * t543;
        const P t545 = t542 + t544;
        const P t546 = t540 - t545;
        io.out(14, 19, t546);
        const P t547 = t540 + t545;
        io.out(34, 54, t547);
        const V t548 = part<1>(t523);
        // spectrum block of 5, multiplier 2
        const V t549 = t510 - t548;
        const P t550 = joined(t527, t549);
        const V t551 = -c[0] * t534;
        const P t552 = joined(t509, t551);
        // spectrum block of 5, multiplier 2
        const P t553 = t550 + t552;
        const P t554 = c[3] * t541;
        const P t555 = c[2] * t543;
        const P t556 = t554 - t555;
        const P t557 = t553 - t556;
        io.out(4, 29, t557);
        const P t558 = t553 + t556;
        io.out(9, 24, t558);
        // spectrum block of 11, multiplier 5
        const V t559 = t16 + t484;
        io.out(44, t559);
    }
};

}  // namespace zulg
