// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 42.
// Complex DFT of 42 points, prime-factor, order 7, 3, 2; one complex number to a register.
// 153 sums, 153 differences, 136 products of registers, which do the 968 steps of the graph, those with
// `scale` included; 32 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<42> {
    static constexpr int steps = 968;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x6 = io.pair(6);
        const P x36 = io.pair(36);
        // complex block of 7, multiplier 6
        const P t0 = x6 + x36;
        const P t1 = x6 - x36;
        const P x30 = io.pair(30);
        const P x12 = io.pair(12);
        const P t2 = x30 + x12;
        const P t3 = x30 - x12;
        const P x24 = io.pair(24);
        const P x18 = io.pair(18);
        const P t4 = x24 + x18;
        const P t5 = x24 - x18;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x0 = io.pair(0);
        const P t8 = t7 + x0;
        const P t9 = c[0] * t0;
        const P t10 = c[1] * t2;
        const P t11 = t9 - t10;
        const P t12 = c[2] * t4;
        const P t13 = t11 - t12;
        const P t14 = t13 + x0;
        const P t15 = c[3] * t1;
        const P t16 = c[4] * t3;
        const P t17 = t15 - t16;
        const P t18 = c[5] * t5;
        const P t19 = t17 - t18;
        const P t20 = shuffled<1, 0>(t19);
        const P t21 = flipped<0, 1>(t20);
        const P t22 = t14 + t21;
        const P t23 = t14 - t21;
        const P t24 = c[1] * t0;
        const P t25 = x0 - t24;
        const P t26 = c[2] * t2;
        const P t27 = t25 - t26;
        const P t28 = c[0] * t4;
        const P t29 = t27 + t28;
        const P t30 = c[4] * t1;
        const P t31 = c[5] * t3;
        const P t32 = t30 + t31;
        const P t33 = c[3] * t5;
        const P t34 = t32 + t33;
        const P t35 = shuffled<1, 0>(t34);
        const P t36 = flipped<0, 1>(t35);
        const P t37 = t29 + t36;
        const P t38 = t29 - t36;
        const P t39 = c[2] * t0;
        const P t40 = x0 - t39;
        const P t41 = c[0] * t2;
        const P t42 = t40 + t41;
        const P t43 = c[1] * t4;
        const P t44 = t42 - t43;
        const P t45 = c[5] * t1;
        const P t46 = c[3] * t3;
        const P t47 = t45 + t46;
        const P t48 = c[4] * t5;
        const P t49 = t47 - t48;
        const P t50 = shuffled<1, 0>(t49);
        const P t51 = flipped<0, 1>(t50);
        const P t52 = t44 + t51;
        const P t53 = t44 - t51;
        const P x27 = io.pair(27);
        const P x15 = io.pair(15);
        // complex block of 7, multiplier 6
        const P t54 = x27 + x15;
        const P t55 = x27 - x15;
        const P x9 = io.pair(9);
        const P x33 = io.pair(33);
        const P t56 = x9 + x33;
        const P t57 = x9 - x33;
        const P x3 = io.pair(3);
        const P x39 = io.pair(39);
        const P t58 = x3 + x39;
        const P t59 = x3 - x39;
        const P t60 = t54 + t56;
        const P t61 = t60 + t58;
        const P x21 = io.pair(21);
        const P t62 = t61 + x21;
        const P t63 = c[0] * t54;
        const P t64 = c[1] * t56;
        const P t65 = t63 - t64;
        const P t66 = c[2] * t58;
        const P t67 = t65 - t66;
        const P t68 = t67 + x21;
        const P t69 = c[3] * t55;
        const P t70 = c[4] * t57;
        const P t71 = t69 - t70;
        const P t72 = c[5] * t59;
        const P t73 = t71 - t72;
        const P t74 = shuffled<1, 0>(t73);
        const P t75 = flipped<0, 1>(t74);
        const P t76 = t68 + t75;
        const P t77 = t68 - t75;
        const P t78 = c[1] * t54;
        const P t79 = x21 - t78;
        const P t80 = c[2] * t56;
        const P t81 = t79 - t80;
        const P t82 = c[0] * t58;
        const P t83 = t81 + t82;
        const P t84 = c[4] * t55;
        const P t85 = c[5] * t57;
        const P t86 = t84 + t85;
        const P t87 = c[3] * t59;
        const P t88 = t86 + t87;
        const P t89 = shuffled<1, 0>(t88);
        const P t90 = flipped<0, 1>(t89);
        const P t91 = t83 + t90;
        const P t92 = t83 - t90;
        const P t93 = c[2] * t54;
        const P t94 = x21 - t93;
        const P t95 = c[0] * t56;
        const P t96 = t94 + t95;
        const P t97 = c[1] * t58;
        const P t98 = t96 - t97;
        const P t99 = c[5] * t55;
        const P t100 = c[3] * t57;
        const P t101 = t99 + t100;
        const P t102 = c[4] * t59;
        const P t103 = t101 - t102;
        const P t104 = shuffled<1, 0>(t103);
        const P t105 = flipped<0, 1>(t104);
        const P t106 = t98 + t105;
        const P t107 = t98 - t105;
        const P x20 = io.pair(20);
        const P x8 = io.pair(8);
        // complex block of 7, multiplier 6
        const P t108 = x20 + x8;
        const P t109 = x20 - x8;
        const P x2 = io.pair(2);
        const P x26 = io.pair(26);
        const P t110 = x2 + x26;
        const P t111 = x2 - x26;
        const P x38 = io.pair(38);
        const P x32 = io.pair(32);
        const P t112 = x38 + x32;
        const P t113 = x38 - x32;
        const P t114 = t108 + t110;
        const P t115 = t114 + t112;
        const P x14 = io.pair(14);
        const P t116 = t115 + x14;
        const P t117 = c[0] * t108;
        const P t118 = c[1] * t110;
        const P t119 = t117 - t118;
        const P t120 = c[2] * t112;
        const P t121 = t119 - t120;
        const P t122 = t121 + x14;
        const P t123 = c[3] * t109;
        const P t124 = c[4] * t111;
        const P t125 = t123 - t124;
        const P t126 = c[5] * t113;
        const P t127 = t125 - t126;
        const P t128 = shuffled<1, 0>(t127);
        const P t129 = flipped<0, 1>(t128);
        const P t130 = t122 + t129;
        const P t131 = t122 - t129;
        const P t132 = c[1] * t108;
        const P t133 = x14 - t132;
        const P t134 = c[2] * t110;
        const P t135 = t133 - t134;
        const P t136 = c[0] * t112;
        const P t137 = t135 + t136;
        const P t138 = c[4] * t109;
        const P t139 = c[5] * t111;
        const P t140 = t138 + t139;
        const P t141 = c[3] * t113;
        const P t142 = t140 + t141;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = flipped<0, 1>(t143);
        const P t145 = t137 + t144;
        const P t146 = t137 - t144;
        const P t147 = c[2] * t108;
        const P t148 = x14 - t147;
        const P t149 = c[0] * t110;
        const P t150 = t148 + t149;
        const P t151 = c[1] * t112;
        const P t152 = t150 - t151;
        const P t153 = c[5] * t109;
        const P t154 = c[3] * t111;
        const P t155 = t153 + t154;
        const P t156 = c[4] * t113;
        const P t157 = t155 - t156;
        const P t158 = shuffled<1, 0>(t157);
        const P t159 = flipped<0, 1>(t158);
        const P t160 = t152 + t159;
        const P t161 = t152 - t159;
        const P x41 = io.pair(41);
        const P x29 = io.pair(29);
        // complex block of 7, multiplier 6
        const P t162 = x41 + x29;
        const P t163 = x41 - x29;
        const P x23 = io.pair(23);
        const P x5 = io.pair(5);
        const P t164 = x23 + x5;
        const P t165 = x23 - x5;
        const P x17 = io.pair(17);
        const P x11 = io.pair(11);
        const P t166 = x17 + x11;
        const P t167 = x17 - x11;
        const P t168 = t162 + t164;
        const P t169 = t168 + t166;
        const P x35 = io.pair(35);
        const P t170 = t169 + x35;
        const P t171 = c[0] * t162;
        const P t172 = c[1] * t164;
        const P t173 = t171 - t172;
        const P t174 = c[2] * t166;
        const P t175 = t173 - t174;
        const P t176 = t175 + x35;
        const P t177 = c[3] * t163;
        const P t178 = c[4] * t165;
        const P t179 = t177 - t178;
        const P t180 = c[5] * t167;
        const P t181 = t179 - t180;
        const P t182 = shuffled<1, 0>(t181);
        const P t183 = flipped<0, 1>(t182);
        const P t184 = t176 + t183;
        const P t185 = t176 - t183;
        const P t186 = c[1] * t162;
        const P t187 = x35 - t186;
        const P t188 = c[2] * t164;
        const P t189 = t187 - t188;
        const P t190 = c[0] * t166;
        const P t191 = t189 + t190;
        const P t192 = c[4] * t163;
        const P t193 = c[5] * t165;
        const P t194 = t192 + t193;
        const P t195 = c[3] * t167;
        const P t196 = t194 + t195;
        const P t197 = shuffled<1, 0>(t196);
        const P t198 = flipped<0, 1>(t197);
        const P t199 = t191 + t198;
        const P t200 = t191 - t198;
        const P t201 = c[2] * t162;
        const P t202 = x35 - t201;
        const P t203 = c[0] * t164;
        const P t204 = t202 + t203;
        const P t205 = c[1] * t166;
        const P t206 = t204 - t205;
        const P t207 = c[5] * t163;
        const P t208 = c[3] * t165;
        const P t209 = t207 + t208;
        const P t210 = c[4] * t167;
        const P t211 = t209 - t210;
        const P t212 = shuffled<1, 0>(t211);
        const P t213 = flipped<0, 1>(t212);
        const P t214 = t206 + t213;
        const P t215 = t206 - t213;
        const P x34 = io.pair(34);
        const P x22 = io.pair(22);
        // complex block of 7, multiplier 6
        const P t216 = x34 + x22;
        const P t217 = x34 - x22;
        const P x16 = io.pair(16);
        const P x40 = io.pair(40);
        const P t218 = x16 + x40;
        const P t219 = x16 - x40;
        const P x10 = io.pair(10);
        const P x4 = io.pair(4);
        const P t220 = x10 + x4;
        const P t221 = x10 - x4;
        const P t222 = t216 + t218;
        const P t223 = t222 + t220;
        const P x28 = io.pair(28);
        const P t224 = t223 + x28;
        const P t225 = c[0] * t216;
        const P t226 = c[1] * t218;
        const P t227 = t225 - t226;
        const P t228 = c[2] * t220;
        const P t229 = t227 - t228;
        const P t230 = t229 + x28;
        const P t231 = c[3] * t217;
        const P t232 = c[4] * t219;
        const P t233 = t231 - t232;
        const P t234 = c[5] * t221;
        const P t235 = t233 - t234;
        const P t236 = shuffled<1, 0>(t235);
        const P t237 = flipped<0, 1>(t236);
        const P t238 = t230 + t237;
        const P t239 = t230 - t237;
        const P t240 = c[1] * t216;
        const P t241 = x28 - t240;
        const P t242 = c[2] * t218;
        const P t243 = t241 - t242;
        const P t244 = c[0] * t220;
        const P t245 = t243 + t244;
        const P t246 = c[4] * t217;
        const P t247 = c[5] * t219;
        const P t248 = t246 + t247;
        const P t249 = c[3] * t221;
        const P t250 = t248 + t249;
        const P t251 = shuffled<1, 0>(t250);
        const P t252 = flipped<0, 1>(t251);
        const P t253 = t245 + t252;
        const P t254 = t245 - t252;
        const P t255 = c[2] * t216;
        const P t256 = x28 - t255;
        const P t257 = c[0] * t218;
        const P t258 = t256 + t257;
        const P t259 = c[1] * t220;
        const P t260 = t258 - t259;
        const P t261 = c[5] * t217;
        const P t262 = c[3] * t219;
        const P t263 = t261 + t262;
        const P t264 = c[4] * t221;
        const P t265 = t263 - t264;
        const P t266 = shuffled<1, 0>(t265);
        const P t267 = flipped<0, 1>(t266);
        const P t268 = t260 + t267;
        const P t269 = t260 - t267;
        const P x13 = io.pair(13);
        const P x1 = io.pair(1);
        // complex block of 7, multiplier 6
        const P t270 = x13 + x1;
        const P t271 = x13 - x1;
        const P x37 = io.pair(37);
        const P x19 = io.pair(19);
        const P t272 = x37 + x19;
        const P t273 = x37 - x19;
        const P x31 = io.pair(31);
        const P x25 = io.pair(25);
        const P t274 = x31 + x25;
        const P t275 = x31 - x25;
        const P t276 = t270 + t272;
        const P t277 = t276 + t274;
        const P x7 = io.pair(7);
        const P t278 = t277 + x7;
        const P t279 = c[0] * t270;
        const P t280 = c[1] * t272;
        const P t281 = t279 - t280;
        const P t282 = c[2] * t274;
        const P t283 = t281 - t282;
        const P t284 = t283 + x7;
        const P t285 = c[3] * t271;
        const P t286 = c[4] * t273;
        const P t287 = t285 - t286;
        const P t288 = c[5] * t275;
        const P t289 = t287 - t288;
        const P t290 = shuffled<1, 0>(t289);
        const P t291 = flipped<0, 1>(t290);
        const P t292 = t284 + t291;
        const P t293 = t284 - t291;
        const P t294 = c[1] * t270;
        const P t295 = x7 - t294;
        const P t296 = c[2] * t272;
        const P t297 = t295 - t296;
        const P t298 = c[0] * t274;
        const P t299 = t297 + t298;
        const P t300 = c[4] * t271;
        const P t301 = c[5] * t273;
        const P t302 = t300 + t301;
        const P t303 = c[3] * t275;
        const P t304 = t302 + t303;
        const P t305 = shuffled<1, 0>(t304);
        const P t306 = flipped<0, 1>(t305);
        const P t307 = t299 + t306;
        const P t308 = t299 - t306;
        const P t309 = c[2] * t270;
        const P t310 = x7 - t309;
        const P t311 = c[0] * t272;
        const P t312 = t310 + t311;
        const P t313 = c[1] * t274;
        const P t314 = t312 - t313;
        const P t315 = c[5] * t271;
        const P t316 = c[3] * t273;
        const P t317 = t315 + t316;
        const P t318 = c[4] * t275;
        const P t319 = t317 - t318;
        const P t320 = shuffled<1, 0>(t319);
        const P t321 = flipped<0, 1>(t320);
        const P t322 = t314 + t321;
        const P t323 = t314 - t321;
        // complex block of 3, multiplier 2
        const P t324 = t116 + t224;
        const P t325 = t116 - t224;
        const P t326 = t324 + t8;
        const P t327 = c[6] * t324;
        const P t328 = t8 - t327;
        const P t329 = P(-c[7], c[7]) * t325;
        const P t330 = shuffled<1, 0>(t329);
        const P t331 = t328 + t330;
        const P t332 = t328 - t330;
        // complex block of 3, multiplier 2
        const P t333 = t170 + t278;
        const P t334 = t170 - t278;
        const P t335 = t333 + t62;
        const P t336 = c[6] * t333;
        const P t337 = t62 - t336;
        const P t338 = P(-c[7], c[7]) * t334;
        const P t339 = shuffled<1, 0>(t338);
        const P t340 = t337 + t339;
        const P t341 = t337 - t339;
        // complex block of 3, multiplier 2
        const P t342 = t131 + t239;
        const P t343 = t131 - t239;
        const P t344 = t342 + t23;
        const P t345 = c[6] * t342;
        const P t346 = t23 - t345;
        const P t347 = P(-c[7], c[7]) * t343;
        const P t348 = shuffled<1, 0>(t347);
        const P t349 = t346 + t348;
        const P t350 = t346 - t348;
        // complex block of 3, multiplier 2
        const P t351 = t185 + t293;
        const P t352 = t185 - t293;
        const P t353 = t351 + t77;
        const P t354 = c[6] * t351;
        const P t355 = t77 - t354;
        const P t356 = P(-c[7], c[7]) * t352;
        const P t357 = shuffled<1, 0>(t356);
        const P t358 = t355 + t357;
        const P t359 = t355 - t357;
        // complex block of 3, multiplier 2
        const P t360 = t146 + t254;
        const P t361 = t146 - t254;
        const P t362 = t360 + t38;
        const P t363 = c[6] * t360;
        const P t364 = t38 - t363;
        const P t365 = P(-c[7], c[7]) * t361;
        const P t366 = shuffled<1, 0>(t365);
        const P t367 = t364 + t366;
        const P t368 = t364 - t366;
        // complex block of 3, multiplier 2
        const P t369 = t200 + t308;
        const P t370 = t200 - t308;
        const P t371 = t369 + t92;
        const P t372 = c[6] * t369;
        const P t373 = t92 - t372;
        const P t374 = P(-c[7], c[7]) * t370;
        const P t375 = shuffled<1, 0>(t374);
        const P t376 = t373 + t375;
        const P t377 = t373 - t375;
        // complex block of 3, multiplier 2
        const P t378 = t161 + t269;
        const P t379 = t161 - t269;
        const P t380 = t378 + t53;
        const P t381 = c[6] * t378;
        const P t382 = t53 - t381;
        const P t383 = P(-c[7], c[7]) * t379;
        const P t384 = shuffled<1, 0>(t383);
        const P t385 = t382 + t384;
        const P t386 = t382 - t384;
        // complex block of 3, multiplier 2
        const P t387 = t215 + t323;
        const P t388 = t215 - t323;
        const P t389 = t387 + t107;
        const P t390 = c[6] * t387;
        const P t391 = t107 - t390;
        const P t392 = P(-c[7], c[7]) * t388;
        const P t393 = shuffled<1, 0>(t392);
        const P t394 = t391 + t393;
        const P t395 = t391 - t393;
        // complex block of 3, multiplier 2
        const P t396 = t160 + t268;
        const P t397 = t160 - t268;
        const P t398 = t396 + t52;
        const P t399 = c[6] * t396;
        const P t400 = t52 - t399;
        const P t401 = P(-c[7], c[7]) * t397;
        const P t402 = shuffled<1, 0>(t401);
        const P t403 = t400 + t402;
        const P t404 = t400 - t402;
        // complex block of 3, multiplier 2
        const P t405 = t214 + t322;
        const P t406 = t214 - t322;
        const P t407 = t405 + t106;
        const P t408 = c[6] * t405;
        const P t409 = t106 - t408;
        const P t410 = P(-c[7], c[7]) * t406;
        const P t411 = shuffled<1, 0>(t410);
        const P t412 = t409 + t411;
        const P t413 = t409 - t411;
        // complex block of 3, multiplier 2
        const P t414 = t145 + t253;
        const P t415 = t145 - t253;
        const P t416 = t414 + t37;
        const P t417 = c[6] * t414;
        const P t418 = t37 - t417;
        const P t419 = P(-c[7], c[7]) * t415;
        const P t420 = shuffled<1, 0>(t419);
        const P t421 = t418 + t420;
        const P t422 = t418 - t420;
        // complex block of 3, multiplier 2
        const P t423 = t199 + t307;
        const P t424 = t199 - t307;
        const P t425 = t423 + t91;
        const P t426 = c[6] * t423;
        const P t427 = t91 - t426;
        const P t428 = P(-c[7], c[7]) * t424;
        const P t429 = shuffled<1, 0>(t428);
        const P t430 = t427 + t429;
        const P t431 = t427 - t429;
        // complex block of 3, multiplier 2
        const P t432 = t130 + t238;
        const P t433 = t130 - t238;
        const P t434 = t432 + t22;
        const P t435 = c[6] * t432;
        const P t436 = t22 - t435;
        const P t437 = P(-c[7], c[7]) * t433;
        const P t438 = shuffled<1, 0>(t437);
        const P t439 = t436 + t438;
        const P t440 = t436 - t438;
        // complex block of 3, multiplier 2
        const P t441 = t184 + t292;
        const P t442 = t184 - t292;
        const P t443 = t441 + t76;
        const P t444 = c[6] * t441;
        const P t445 = t76 - t444;
        const P t446 = P(-c[7], c[7]) * t442;
        const P t447 = shuffled<1, 0>(t446);
        const P t448 = t445 + t447;
        const P t449 = t445 - t447;
        // complex block of 2
        const P t450 = t326 + t335;
        io.pair(0, t450);
        const P t451 = t326 - t335;
        io.pair(21, t451);
        // complex block of 2
        const P t452 = t332 + t341;
        io.pair(14, t452);
        const P t453 = t332 - t341;
        io.pair(35, t453);
        // complex block of 2
        const P t454 = t331 + t340;
        io.pair(28, t454);
        const P t455 = t331 - t340;
        io.pair(7, t455);
        // complex block of 2
        const P t456 = t344 + t353;
        io.pair(6, t456);
        const P t457 = t344 - t353;
        io.pair(27, t457);
        // complex block of 2
        const P t458 = t350 + t359;
        io.pair(20, t458);
        const P t459 = t350 - t359;
        io.pair(41, t459);
        // complex block of 2
        const P t460 = t349 + t358;
        io.pair(34, t460);
        const P t461 = t349 - t358;
        io.pair(13, t461);
        // complex block of 2
        const P t462 = t362 + t371;
        io.pair(12, t462);
        const P t463 = t362 - t371;
        io.pair(33, t463);
        // complex block of 2
        const P t464 = t368 + t377;
        io.pair(26, t464);
        const P t465 = t368 - t377;
        io.pair(5, t465);
        // complex block of 2
        const P t466 = t367 + t376;
        io.pair(40, t466);
        const P t467 = t367 - t376;
        io.pair(19, t467);
        // complex block of 2
        const P t468 = t380 + t389;
        io.pair(18, t468);
        const P t469 = t380 - t389;
        io.pair(39, t469);
        // complex block of 2
        const P t470 = t386 + t395;
        io.pair(32, t470);
        const P t471 = t386 - t395;
        io.pair(11, t471);
        // complex block of 2
        const P t472 = t385 + t394;
        io.pair(4, t472);
        const P t473 = t385 - t394;
        io.pair(25, t473);
        // complex block of 2
        const P t474 = t398 + t407;
        io.pair(24, t474);
        const P t475 = t398 - t407;
        io.pair(3, t475);
        // complex block of 2
        const P t476 = t404 + t413;
        io.pair(38, t476);
        const P t477 = t404 - t413;
        io.pair(17, t477);
        // complex block of 2
        const P t478 = t403 + t412;
        io.pair(10, t478);
        const P t479 = t403 - t412;
        io.pair(31, t479);
        // complex block of 2
        const P t480 = t416 + t425;
        io.pair(30, t480);
        const P t481 = t416 - t425;
        io.pair(9, t481);
        // complex block of 2
        const P t482 = t422 + t431;
        io.pair(2, t482);
        const P t483 = t422 - t431;
        io.pair(23, t483);
        // complex block of 2
        const P t484 = t421 + t430;
        io.pair(16, t484);
        const P t485 = t421 - t430;
        io.pair(37, t485);
        // complex block of 2
        const P t486 = t434 + t443;
        io.pair(36, t486);
        const P t487 = t434 - t443;
        io.pair(15, t487);
        // complex block of 2
        const P t488 = t440 + t449;
        io.pair(8, t488);
        const P t489 = t440 - t449;
        io.pair(29, t489);
        // complex block of 2
        const P t490 = t439 + t448;
        io.pair(22, t490);
        const P t491 = t439 - t448;
        io.pair(1, t491);
    }
};

}  // namespace zulg
