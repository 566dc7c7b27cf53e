// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 56.
// Complex DFT of 56 points, prime-factor, order 7, 8; one complex number to a register.
// 225 sums, 197 differences, 158 products of registers, which do the 1272 steps of the graph, those with
// `scale` included; 66 shuffles, 80 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<56> {
    static constexpr int steps = 1272;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.7071067811865476,  // c[6]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x8 = io.pair(8);
        const P x48 = io.pair(48);
        // complex block of 7
        const P t0 = x8 + x48;
        const P t1 = x8 - x48;
        const P x40 = io.pair(40);
        const P x16 = io.pair(16);
        const P t2 = x40 + x16;
        const P t3 = x40 - x16;
        const P x32 = io.pair(32);
        const P x24 = io.pair(24);
        const P t4 = x32 + x24;
        const P t5 = x32 - x24;
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
        const P x15 = io.pair(15);
        const P x55 = io.pair(55);
        // complex block of 7
        const P t54 = x15 + x55;
        const P t55 = x15 - x55;
        const P x47 = io.pair(47);
        const P x23 = io.pair(23);
        const P t56 = x47 + x23;
        const P t57 = x47 - x23;
        const P x39 = io.pair(39);
        const P x31 = io.pair(31);
        const P t58 = x39 + x31;
        const P t59 = x39 - x31;
        const P t60 = t54 + t56;
        const P t61 = t60 + t58;
        const P x7 = io.pair(7);
        const P t62 = t61 + x7;
        const P t63 = c[0] * t54;
        const P t64 = c[1] * t56;
        const P t65 = t63 - t64;
        const P t66 = c[2] * t58;
        const P t67 = t65 - t66;
        const P t68 = t67 + x7;
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
        const P t79 = x7 - t78;
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
        const P t94 = x7 - t93;
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
        const P x22 = io.pair(22);
        const P x6 = io.pair(6);
        // complex block of 7
        const P t108 = x22 + x6;
        const P t109 = x22 - x6;
        const P x54 = io.pair(54);
        const P x30 = io.pair(30);
        const P t110 = x54 + x30;
        const P t111 = x54 - x30;
        const P x46 = io.pair(46);
        const P x38 = io.pair(38);
        const P t112 = x46 + x38;
        const P t113 = x46 - x38;
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
        const P x29 = io.pair(29);
        const P x13 = io.pair(13);
        // complex block of 7
        const P t162 = x29 + x13;
        const P t163 = x29 - x13;
        const P x5 = io.pair(5);
        const P x37 = io.pair(37);
        const P t164 = x5 + x37;
        const P t165 = x5 - x37;
        const P x53 = io.pair(53);
        const P x45 = io.pair(45);
        const P t166 = x53 + x45;
        const P t167 = x53 - x45;
        const P t168 = t162 + t164;
        const P t169 = t168 + t166;
        const P x21 = io.pair(21);
        const P t170 = t169 + x21;
        const P t171 = c[0] * t162;
        const P t172 = c[1] * t164;
        const P t173 = t171 - t172;
        const P t174 = c[2] * t166;
        const P t175 = t173 - t174;
        const P t176 = t175 + x21;
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
        const P t187 = x21 - t186;
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
        const P t202 = x21 - t201;
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
        const P x36 = io.pair(36);
        const P x20 = io.pair(20);
        // complex block of 7
        const P t216 = x36 + x20;
        const P t217 = x36 - x20;
        const P x12 = io.pair(12);
        const P x44 = io.pair(44);
        const P t218 = x12 + x44;
        const P t219 = x12 - x44;
        const P x4 = io.pair(4);
        const P x52 = io.pair(52);
        const P t220 = x4 + x52;
        const P t221 = x4 - x52;
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
        const P x43 = io.pair(43);
        const P x27 = io.pair(27);
        // complex block of 7
        const P t270 = x43 + x27;
        const P t271 = x43 - x27;
        const P x19 = io.pair(19);
        const P x51 = io.pair(51);
        const P t272 = x19 + x51;
        const P t273 = x19 - x51;
        const P x11 = io.pair(11);
        const P x3 = io.pair(3);
        const P t274 = x11 + x3;
        const P t275 = x11 - x3;
        const P t276 = t270 + t272;
        const P t277 = t276 + t274;
        const P x35 = io.pair(35);
        const P t278 = t277 + x35;
        const P t279 = c[0] * t270;
        const P t280 = c[1] * t272;
        const P t281 = t279 - t280;
        const P t282 = c[2] * t274;
        const P t283 = t281 - t282;
        const P t284 = t283 + x35;
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
        const P t295 = x35 - t294;
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
        const P t310 = x35 - t309;
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
        const P x50 = io.pair(50);
        const P x34 = io.pair(34);
        // complex block of 7
        const P t324 = x50 + x34;
        const P t325 = x50 - x34;
        const P x26 = io.pair(26);
        const P x2 = io.pair(2);
        const P t326 = x26 + x2;
        const P t327 = x26 - x2;
        const P x18 = io.pair(18);
        const P x10 = io.pair(10);
        const P t328 = x18 + x10;
        const P t329 = x18 - x10;
        const P t330 = t324 + t326;
        const P t331 = t330 + t328;
        const P x42 = io.pair(42);
        const P t332 = t331 + x42;
        const P t333 = c[0] * t324;
        const P t334 = c[1] * t326;
        const P t335 = t333 - t334;
        const P t336 = c[2] * t328;
        const P t337 = t335 - t336;
        const P t338 = t337 + x42;
        const P t339 = c[3] * t325;
        const P t340 = c[4] * t327;
        const P t341 = t339 - t340;
        const P t342 = c[5] * t329;
        const P t343 = t341 - t342;
        const P t344 = shuffled<1, 0>(t343);
        const P t345 = flipped<0, 1>(t344);
        const P t346 = t338 + t345;
        const P t347 = t338 - t345;
        const P t348 = c[1] * t324;
        const P t349 = x42 - t348;
        const P t350 = c[2] * t326;
        const P t351 = t349 - t350;
        const P t352 = c[0] * t328;
        const P t353 = t351 + t352;
        const P t354 = c[4] * t325;
        const P t355 = c[5] * t327;
        const P t356 = t354 + t355;
        const P t357 = c[3] * t329;
        const P t358 = t356 + t357;
        const P t359 = shuffled<1, 0>(t358);
        const P t360 = flipped<0, 1>(t359);
        const P t361 = t353 + t360;
        const P t362 = t353 - t360;
        const P t363 = c[2] * t324;
        const P t364 = x42 - t363;
        const P t365 = c[0] * t326;
        const P t366 = t364 + t365;
        const P t367 = c[1] * t328;
        const P t368 = t366 - t367;
        const P t369 = c[5] * t325;
        const P t370 = c[3] * t327;
        const P t371 = t369 + t370;
        const P t372 = c[4] * t329;
        const P t373 = t371 - t372;
        const P t374 = shuffled<1, 0>(t373);
        const P t375 = flipped<0, 1>(t374);
        const P t376 = t368 + t375;
        const P t377 = t368 - t375;
        const P x1 = io.pair(1);
        const P x41 = io.pair(41);
        // complex block of 7
        const P t378 = x1 + x41;
        const P t379 = x1 - x41;
        const P x33 = io.pair(33);
        const P x9 = io.pair(9);
        const P t380 = x33 + x9;
        const P t381 = x33 - x9;
        const P x25 = io.pair(25);
        const P x17 = io.pair(17);
        const P t382 = x25 + x17;
        const P t383 = x25 - x17;
        const P t384 = t378 + t380;
        const P t385 = t384 + t382;
        const P x49 = io.pair(49);
        const P t386 = t385 + x49;
        const P t387 = c[0] * t378;
        const P t388 = c[1] * t380;
        const P t389 = t387 - t388;
        const P t390 = c[2] * t382;
        const P t391 = t389 - t390;
        const P t392 = t391 + x49;
        const P t393 = c[3] * t379;
        const P t394 = c[4] * t381;
        const P t395 = t393 - t394;
        const P t396 = c[5] * t383;
        const P t397 = t395 - t396;
        const P t398 = shuffled<1, 0>(t397);
        const P t399 = flipped<0, 1>(t398);
        const P t400 = t392 + t399;
        const P t401 = t392 - t399;
        const P t402 = c[1] * t378;
        const P t403 = x49 - t402;
        const P t404 = c[2] * t380;
        const P t405 = t403 - t404;
        const P t406 = c[0] * t382;
        const P t407 = t405 + t406;
        const P t408 = c[4] * t379;
        const P t409 = c[5] * t381;
        const P t410 = t408 + t409;
        const P t411 = c[3] * t383;
        const P t412 = t410 + t411;
        const P t413 = shuffled<1, 0>(t412);
        const P t414 = flipped<0, 1>(t413);
        const P t415 = t407 + t414;
        const P t416 = t407 - t414;
        const P t417 = c[2] * t378;
        const P t418 = x49 - t417;
        const P t419 = c[0] * t380;
        const P t420 = t418 + t419;
        const P t421 = c[1] * t382;
        const P t422 = t420 - t421;
        const P t423 = c[5] * t379;
        const P t424 = c[3] * t381;
        const P t425 = t423 + t424;
        const P t426 = c[4] * t383;
        const P t427 = t425 - t426;
        const P t428 = shuffled<1, 0>(t427);
        const P t429 = flipped<0, 1>(t428);
        const P t430 = t422 + t429;
        const P t431 = t422 - t429;
        // complex block of 2
        const P t432 = t8 + t224;
        const P t433 = t8 - t224;
        // complex block of 2
        const P t434 = t62 + t278;
        const P t435 = t62 - t278;
        // complex block of 2
        const P t436 = t116 + t332;
        const P t437 = t116 - t332;
        // complex block of 2
        const P t438 = t170 + t386;
        const P t439 = t170 - t386;
        // complex block of 2
        const P t440 = t432 + t436;
        const P t441 = t432 - t436;
        // complex block of 2
        const P t442 = t434 + t438;
        const P t443 = t434 - t438;
        // complex block of 2
        const P t444 = t440 + t442;
        io.pair(0, t444);
        const P t445 = t440 - t442;
        io.pair(28, t445);
        const P t446 = shuffled<1, 0>(t443);
        const P t447 = flipped<1, 0>(t446);
        // complex block of 2
        const P t448 = t441 + t447;
        io.pair(14, t448);
        const P t449 = t441 - t447;
        io.pair(42, t449);
        // complex block of 8, multiplier 7
        const P t450 = c[6] * t435;
        const P t451 = shuffled<1, 0>(t450);
        const P t452 = flipped<0, 1>(t451);
        const P t453 = t450 + t452;
        const P t454 = c[6] * t439;
        const P t455 = shuffled<1, 0>(t454);
        const P t456 = flipped<0, 1>(t455);
        const P t457 = t454 + t456;
        const P t458 = shuffled<1, 0>(t437);
        const P t459 = flipped<1, 0>(t458);
        // complex block of 2
        const P t460 = t433 + t459;
        const P t461 = t433 - t459;
        const P t462 = shuffled<1, 0>(t453);
        const P t463 = flipped<0, 1>(t457);
        // complex block of 2
        const P t464 = t462 + t463;
        const P t465 = flipped<1, 0>(t462);
        const P t466 = t465 + t457;
        const P t467 = flipped<1, 0>(t464);
        // complex block of 2
        const P t468 = t460 + t467;
        io.pair(7, t468);
        const P t469 = t460 - t467;
        io.pair(35, t469);
        const P t470 = shuffled<1, 0>(t466);
        const P t471 = flipped<1, 0>(t470);
        // complex block of 2
        const P t472 = t461 + t471;
        io.pair(21, t472);
        const P t473 = t461 - t471;
        io.pair(49, t473);
        // complex block of 2
        const P t474 = t22 + t238;
        const P t475 = t22 - t238;
        // complex block of 2
        const P t476 = t76 + t292;
        const P t477 = t76 - t292;
        // complex block of 2
        const P t478 = t130 + t346;
        const P t479 = t130 - t346;
        // complex block of 2
        const P t480 = t184 + t400;
        const P t481 = t184 - t400;
        // complex block of 2
        const P t482 = t474 + t478;
        const P t483 = t474 - t478;
        // complex block of 2
        const P t484 = t476 + t480;
        const P t485 = t476 - t480;
        // complex block of 2
        const P t486 = t482 + t484;
        io.pair(8, t486);
        const P t487 = t482 - t484;
        io.pair(36, t487);
        const P t488 = shuffled<1, 0>(t485);
        const P t489 = flipped<1, 0>(t488);
        // complex block of 2
        const P t490 = t483 + t489;
        io.pair(22, t490);
        const P t491 = t483 - t489;
        io.pair(50, t491);
        // complex block of 8, multiplier 7
        const P t492 = c[6] * t477;
        const P t493 = shuffled<1, 0>(t492);
        const P t494 = flipped<0, 1>(t493);
        const P t495 = t492 + t494;
        const P t496 = c[6] * t481;
        const P t497 = shuffled<1, 0>(t496);
        const P t498 = flipped<0, 1>(t497);
        const P t499 = t496 + t498;
        const P t500 = shuffled<1, 0>(t479);
        const P t501 = flipped<1, 0>(t500);
        // complex block of 2
        const P t502 = t475 + t501;
        const P t503 = t475 - t501;
        const P t504 = shuffled<1, 0>(t495);
        const P t505 = flipped<0, 1>(t499);
        // complex block of 2
        const P t506 = t504 + t505;
        const P t507 = flipped<1, 0>(t504);
        const P t508 = t507 + t499;
        const P t509 = flipped<1, 0>(t506);
        // complex block of 2
        const P t510 = t502 + t509;
        io.pair(15, t510);
        const P t511 = t502 - t509;
        io.pair(43, t511);
        const P t512 = shuffled<1, 0>(t508);
        const P t513 = flipped<1, 0>(t512);
        // complex block of 2
        const P t514 = t503 + t513;
        io.pair(29, t514);
        const P t515 = t503 - t513;
        io.pair(1, t515);
        // complex block of 2
        const P t516 = t37 + t253;
        const P t517 = t37 - t253;
        // complex block of 2
        const P t518 = t91 + t307;
        const P t519 = t91 - t307;
        // complex block of 2
        const P t520 = t145 + t361;
        const P t521 = t145 - t361;
        // complex block of 2
        const P t522 = t199 + t415;
        const P t523 = t199 - t415;
        // complex block of 2
        const P t524 = t516 + t520;
        const P t525 = t516 - t520;
        // complex block of 2
        const P t526 = t518 + t522;
        const P t527 = t518 - t522;
        // complex block of 2
        const P t528 = t524 + t526;
        io.pair(16, t528);
        const P t529 = t524 - t526;
        io.pair(44, t529);
        const P t530 = shuffled<1, 0>(t527);
        const P t531 = flipped<1, 0>(t530);
        // complex block of 2
        const P t532 = t525 + t531;
        io.pair(30, t532);
        const P t533 = t525 - t531;
        io.pair(2, t533);
        // complex block of 8, multiplier 7
        const P t534 = c[6] * t519;
        const P t535 = shuffled<1, 0>(t534);
        const P t536 = flipped<0, 1>(t535);
        const P t537 = t534 + t536;
        const P t538 = c[6] * t523;
        const P t539 = shuffled<1, 0>(t538);
        const P t540 = flipped<0, 1>(t539);
        const P t541 = t538 + t540;
        const P t542 = shuffled<1, 0>(t521);
        const P t543 = flipped<1, 0>(t542);
        // complex block of 2
        const P t544 = t517 + t543;
        const P t545 = t517 - t543;
        const P t546 = shuffled<1, 0>(t537);
        const P t547 = flipped<0, 1>(t541);
        // complex block of 2
        const P t548 = t546 + t547;
        const P t549 = flipped<1, 0>(t546);
        const P t550 = t549 + t541;
        const P t551 = flipped<1, 0>(t548);
        // complex block of 2
        const P t552 = t544 + t551;
        io.pair(23, t552);
        const P t553 = t544 - t551;
        io.pair(51, t553);
        const P t554 = shuffled<1, 0>(t550);
        const P t555 = flipped<1, 0>(t554);
        // complex block of 2
        const P t556 = t545 + t555;
        io.pair(37, t556);
        const P t557 = t545 - t555;
        io.pair(9, t557);
        // complex block of 2
        const P t558 = t52 + t268;
        const P t559 = t52 - t268;
        // complex block of 2
        const P t560 = t106 + t322;
        const P t561 = t106 - t322;
        // complex block of 2
        const P t562 = t160 + t376;
        const P t563 = t160 - t376;
        // complex block of 2
        const P t564 = t214 + t430;
        const P t565 = t214 - t430;
        // complex block of 2
        const P t566 = t558 + t562;
        const P t567 = t558 - t562;
        // complex block of 2
        const P t568 = t560 + t564;
        const P t569 = t560 - t564;
        // complex block of 2
        const P t570 = t566 + t568;
        io.pair(24, t570);
        const P t571 = t566 - t568;
        io.pair(52, t571);
        const P t572 = shuffled<1, 0>(t569);
        const P t573 = flipped<1, 0>(t572);
        // complex block of 2
        const P t574 = t567 + t573;
        io.pair(38, t574);
        const P t575 = t567 - t573;
        io.pair(10, t575);
        // complex block of 8, multiplier 7
        const P t576 = c[6] * t561;
        const P t577 = shuffled<1, 0>(t576);
        const P t578 = flipped<0, 1>(t577);
        const P t579 = t576 + t578;
        const P t580 = c[6] * t565;
        const P t581 = shuffled<1, 0>(t580);
        const P t582 = flipped<0, 1>(t581);
        const P t583 = t580 + t582;
        const P t584 = shuffled<1, 0>(t563);
        const P t585 = flipped<1, 0>(t584);
        // complex block of 2
        const P t586 = t559 + t585;
        const P t587 = t559 - t585;
        const P t588 = shuffled<1, 0>(t579);
        const P t589 = flipped<0, 1>(t583);
        // complex block of 2
        const P t590 = t588 + t589;
        const P t591 = flipped<1, 0>(t588);
        const P t592 = t591 + t583;
        const P t593 = flipped<1, 0>(t590);
        // complex block of 2
        const P t594 = t586 + t593;
        io.pair(31, t594);
        const P t595 = t586 - t593;
        io.pair(3, t595);
        const P t596 = shuffled<1, 0>(t592);
        const P t597 = flipped<1, 0>(t596);
        // complex block of 2
        const P t598 = t587 + t597;
        io.pair(45, t598);
        const P t599 = t587 - t597;
        io.pair(17, t599);
        // complex block of 2
        const P t600 = t53 + t269;
        const P t601 = t53 - t269;
        // complex block of 2
        const P t602 = t107 + t323;
        const P t603 = t107 - t323;
        // complex block of 2
        const P t604 = t161 + t377;
        const P t605 = t161 - t377;
        // complex block of 2
        const P t606 = t215 + t431;
        const P t607 = t215 - t431;
        // complex block of 2
        const P t608 = t600 + t604;
        const P t609 = t600 - t604;
        // complex block of 2
        const P t610 = t602 + t606;
        const P t611 = t602 - t606;
        // complex block of 2
        const P t612 = t608 + t610;
        io.pair(32, t612);
        const P t613 = t608 - t610;
        io.pair(4, t613);
        const P t614 = shuffled<1, 0>(t611);
        const P t615 = flipped<1, 0>(t614);
        // complex block of 2
        const P t616 = t609 + t615;
        io.pair(46, t616);
        const P t617 = t609 - t615;
        io.pair(18, t617);
        // complex block of 8, multiplier 7
        const P t618 = c[6] * t603;
        const P t619 = shuffled<1, 0>(t618);
        const P t620 = flipped<0, 1>(t619);
        const P t621 = t618 + t620;
        const P t622 = c[6] * t607;
        const P t623 = shuffled<1, 0>(t622);
        const P t624 = flipped<0, 1>(t623);
        const P t625 = t622 + t624;
        const P t626 = shuffled<1, 0>(t605);
        const P t627 = flipped<1, 0>(t626);
        // complex block of 2
        const P t628 = t601 + t627;
        const P t629 = t601 - t627;
        const P t630 = shuffled<1, 0>(t621);
        const P t631 = flipped<0, 1>(t625);
        // complex block of 2
        const P t632 = t630 + t631;
        const P t633 = flipped<1, 0>(t630);
        const P t634 = t633 + t625;
        const P t635 = flipped<1, 0>(t632);
        // complex block of 2
        const P t636 = t628 + t635;
        io.pair(39, t636);
        const P t637 = t628 - t635;
        io.pair(11, t637);
        const P t638 = shuffled<1, 0>(t634);
        const P t639 = flipped<1, 0>(t638);
        // complex block of 2
        const P t640 = t629 + t639;
        io.pair(53, t640);
        const P t641 = t629 - t639;
        io.pair(25, t641);
        // complex block of 2
        const P t642 = t38 + t254;
        const P t643 = t38 - t254;
        // complex block of 2
        const P t644 = t92 + t308;
        const P t645 = t92 - t308;
        // complex block of 2
        const P t646 = t146 + t362;
        const P t647 = t146 - t362;
        // complex block of 2
        const P t648 = t200 + t416;
        const P t649 = t200 - t416;
        // complex block of 2
        const P t650 = t642 + t646;
        const P t651 = t642 - t646;
        // complex block of 2
        const P t652 = t644 + t648;
        const P t653 = t644 - t648;
        // complex block of 2
        const P t654 = t650 + t652;
        io.pair(40, t654);
        const P t655 = t650 - t652;
        io.pair(12, t655);
        const P t656 = shuffled<1, 0>(t653);
        const P t657 = flipped<1, 0>(t656);
        // complex block of 2
        const P t658 = t651 + t657;
        io.pair(54, t658);
        const P t659 = t651 - t657;
        io.pair(26, t659);
        // complex block of 8, multiplier 7
        const P t660 = c[6] * t645;
        const P t661 = shuffled<1, 0>(t660);
        const P t662 = flipped<0, 1>(t661);
        const P t663 = t660 + t662;
        const P t664 = c[6] * t649;
        const P t665 = shuffled<1, 0>(t664);
        const P t666 = flipped<0, 1>(t665);
        const P t667 = t664 + t666;
        const P t668 = shuffled<1, 0>(t647);
        const P t669 = flipped<1, 0>(t668);
        // complex block of 2
        const P t670 = t643 + t669;
        const P t671 = t643 - t669;
        const P t672 = shuffled<1, 0>(t663);
        const P t673 = flipped<0, 1>(t667);
        // complex block of 2
        const P t674 = t672 + t673;
        const P t675 = flipped<1, 0>(t672);
        const P t676 = t675 + t667;
        const P t677 = flipped<1, 0>(t674);
        // complex block of 2
        const P t678 = t670 + t677;
        io.pair(47, t678);
        const P t679 = t670 - t677;
        io.pair(19, t679);
        const P t680 = shuffled<1, 0>(t676);
        const P t681 = flipped<1, 0>(t680);
        // complex block of 2
        const P t682 = t671 + t681;
        io.pair(5, t682);
        const P t683 = t671 - t681;
        io.pair(33, t683);
        // complex block of 2
        const P t684 = t23 + t239;
        const P t685 = t23 - t239;
        // complex block of 2
        const P t686 = t77 + t293;
        const P t687 = t77 - t293;
        // complex block of 2
        const P t688 = t131 + t347;
        const P t689 = t131 - t347;
        // complex block of 2
        const P t690 = t185 + t401;
        const P t691 = t185 - t401;
        // complex block of 2
        const P t692 = t684 + t688;
        const P t693 = t684 - t688;
        // complex block of 2
        const P t694 = t686 + t690;
        const P t695 = t686 - t690;
        // complex block of 2
        const P t696 = t692 + t694;
        io.pair(48, t696);
        const P t697 = t692 - t694;
        io.pair(20, t697);
        const P t698 = shuffled<1, 0>(t695);
        const P t699 = flipped<1, 0>(t698);
        // complex block of 2
        const P t700 = t693 + t699;
        io.pair(6, t700);
        const P t701 = t693 - t699;
        io.pair(34, t701);
        // complex block of 8, multiplier 7
        const P t702 = c[6] * t687;
        const P t703 = shuffled<1, 0>(t702);
        const P t704 = flipped<0, 1>(t703);
        const P t705 = t702 + t704;
        const P t706 = c[6] * t691;
        const P t707 = shuffled<1, 0>(t706);
        const P t708 = flipped<0, 1>(t707);
        const P t709 = t706 + t708;
        const P t710 = shuffled<1, 0>(t689);
        const P t711 = flipped<1, 0>(t710);
        // complex block of 2
        const P t712 = t685 + t711;
        const P t713 = t685 - t711;
        const P t714 = shuffled<1, 0>(t705);
        const P t715 = flipped<0, 1>(t709);
        // complex block of 2
        const P t716 = t714 + t715;
        const P t717 = flipped<1, 0>(t714);
        const P t718 = t717 + t709;
        const P t719 = flipped<1, 0>(t716);
        // complex block of 2
        const P t720 = t712 + t719;
        io.pair(55, t720);
        const P t721 = t712 - t719;
        io.pair(27, t721);
        const P t722 = shuffled<1, 0>(t718);
        const P t723 = flipped<1, 0>(t722);
        // complex block of 2
        const P t724 = t713 + t723;
        io.pair(13, t724);
        const P t725 = t713 - t723;
        io.pair(41, t725);
    }
};

}  // namespace zulg
