// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 56.
// Forward DFT of 56 real points, prime-factor 7, 8.
// 184 additions, 184 subtractions, 158 multiplications (214 with `scale`); 14 outputs negated; 7 constants; 63 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<56> {
    static constexpr int steps = 582;  // with `scale`
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
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 7
        const V x8 = io.in(8);
        const V x48 = io.in(48);
        const V t0 = x8 + x48;
        const V t1 = x8 - x48;
        const V x40 = io.in(40);
        const V x16 = io.in(16);
        const V t2 = x40 + x16;
        const V t3 = x40 - x16;
        const V x32 = io.in(32);
        const V x24 = io.in(24);
        const V t4 = x32 + x24;
        const V t5 = x32 - x24;
        const V t6 = t0 + t2;
        const V t7 = t6 + t4;
        const V x0 = io.in(0);
        const V t8 = t7 + x0;
        const V t9 = c[0] * t0;
        const V t10 = c[1] * t2;
        const V t11 = t9 - t10;
        const V t12 = c[2] * t4;
        const V t13 = t11 - t12;
        const V t14 = t13 + x0;
        const V t15 = c[3] * t1;
        const V t16 = c[4] * t3;
        const V t17 = c[5] * t5;
        const V t18 = t16 + t17;
        const V t19 = t18 - t15;
        const V t20 = c[1] * t0;
        const V t21 = x0 - t20;
        const V t22 = c[2] * t2;
        const V t23 = t21 - t22;
        const V t24 = c[0] * t4;
        const V t25 = t23 + t24;
        const V t26 = c[4] * t1;
        const V t27 = c[5] * t3;
        const V t28 = c[3] * t5;
        const V t29 = t26 + t27;
        const V t30 = t29 + t28;
        const V t31 = c[2] * t0;
        const V t32 = x0 - t31;
        const V t33 = c[0] * t2;
        const V t34 = t32 + t33;
        const V t35 = c[1] * t4;
        const V t36 = t34 - t35;
        const V t37 = c[5] * t1;
        const V t38 = c[3] * t3;
        const V t39 = c[4] * t5;
        const V t40 = t39 - t37;
        const V t41 = t40 - t38;
        // real block of 7
        const V x15 = io.in(15);
        const V x55 = io.in(55);
        const V t42 = x15 + x55;
        const V t43 = x15 - x55;
        const V x47 = io.in(47);
        const V x23 = io.in(23);
        const V t44 = x47 + x23;
        const V t45 = x47 - x23;
        const V x39 = io.in(39);
        const V x31 = io.in(31);
        const V t46 = x39 + x31;
        const V t47 = x39 - x31;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V x7 = io.in(7);
        const V t50 = t49 + x7;
        const V t51 = c[0] * t42;
        const V t52 = c[1] * t44;
        const V t53 = t51 - t52;
        const V t54 = c[2] * t46;
        const V t55 = t53 - t54;
        const V t56 = t55 + x7;
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t58 + t59;
        const V t61 = t60 - t57;
        const V t62 = c[1] * t42;
        const V t63 = x7 - t62;
        const V t64 = c[2] * t44;
        const V t65 = t63 - t64;
        const V t66 = c[0] * t46;
        const V t67 = t65 + t66;
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t68 + t69;
        const V t72 = t71 + t70;
        const V t73 = c[2] * t42;
        const V t74 = x7 - t73;
        const V t75 = c[0] * t44;
        const V t76 = t74 + t75;
        const V t77 = c[1] * t46;
        const V t78 = t76 - t77;
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t81 - t79;
        const V t83 = t82 - t80;
        // real block of 7
        const V x22 = io.in(22);
        const V x6 = io.in(6);
        const V t84 = x22 + x6;
        const V t85 = x22 - x6;
        const V x54 = io.in(54);
        const V x30 = io.in(30);
        const V t86 = x54 + x30;
        const V t87 = x54 - x30;
        const V x46 = io.in(46);
        const V x38 = io.in(38);
        const V t88 = x46 + x38;
        const V t89 = x46 - x38;
        const V t90 = t84 + t86;
        const V t91 = t90 + t88;
        const V x14 = io.in(14);
        const V t92 = t91 + x14;
        const V t93 = c[0] * t84;
        const V t94 = c[1] * t86;
        const V t95 = t93 - t94;
        const V t96 = c[2] * t88;
        const V t97 = t95 - t96;
        const V t98 = t97 + x14;
        const V t99 = c[3] * t85;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t89;
        const V t102 = t100 + t101;
        const V t103 = t102 - t99;
        const V t104 = c[1] * t84;
        const V t105 = x14 - t104;
        const V t106 = c[2] * t86;
        const V t107 = t105 - t106;
        const V t108 = c[0] * t88;
        const V t109 = t107 + t108;
        const V t110 = c[4] * t85;
        const V t111 = c[5] * t87;
        const V t112 = c[3] * t89;
        const V t113 = t110 + t111;
        const V t114 = t113 + t112;
        const V t115 = c[2] * t84;
        const V t116 = x14 - t115;
        const V t117 = c[0] * t86;
        const V t118 = t116 + t117;
        const V t119 = c[1] * t88;
        const V t120 = t118 - t119;
        const V t121 = c[5] * t85;
        const V t122 = c[3] * t87;
        const V t123 = c[4] * t89;
        const V t124 = t123 - t121;
        const V t125 = t124 - t122;
        // real block of 7
        const V x29 = io.in(29);
        const V x13 = io.in(13);
        const V t126 = x29 + x13;
        const V t127 = x29 - x13;
        const V x5 = io.in(5);
        const V x37 = io.in(37);
        const V t128 = x5 + x37;
        const V t129 = x5 - x37;
        const V x53 = io.in(53);
        const V x45 = io.in(45);
        const V t130 = x53 + x45;
        const V t131 = x53 - x45;
        const V t132 = t126 + t128;
        const V t133 = t132 + t130;
        const V x21 = io.in(21);
        const V t134 = t133 + x21;
        const V t135 = c[0] * t126;
        const V t136 = c[1] * t128;
        const V t137 = t135 - t136;
        const V t138 = c[2] * t130;
        const V t139 = t137 - t138;
        const V t140 = t139 + x21;
        const V t141 = c[3] * t127;
        const V t142 = c[4] * t129;
        const V t143 = c[5] * t131;
        const V t144 = t142 + t143;
        const V t145 = t144 - t141;
        const V t146 = c[1] * t126;
        const V t147 = x21 - t146;
        const V t148 = c[2] * t128;
        const V t149 = t147 - t148;
        const V t150 = c[0] * t130;
        const V t151 = t149 + t150;
        const V t152 = c[4] * t127;
        const V t153 = c[5] * t129;
        const V t154 = c[3] * t131;
        const V t155 = t152 + t153;
        const V t156 = t155 + t154;
        const V t157 = c[2] * t126;
        const V t158 = x21 - t157;
        const V t159 = c[0] * t128;
        const V t160 = t158 + t159;
        const V t161 = c[1] * t130;
        const V t162 = t160 - t161;
        const V t163 = c[5] * t127;
        const V t164 = c[3] * t129;
        const V t165 = c[4] * t131;
        const V t166 = t165 - t163;
        const V t167 = t166 - t164;
        // real block of 7
        const V x36 = io.in(36);
        const V x20 = io.in(20);
        const V t168 = x36 + x20;
        const V t169 = x36 - x20;
        const V x12 = io.in(12);
        const V x44 = io.in(44);
        const V t170 = x12 + x44;
        const V t171 = x12 - x44;
        const V x4 = io.in(4);
        const V x52 = io.in(52);
        const V t172 = x4 + x52;
        const V t173 = x4 - x52;
        const V t174 = t168 + t170;
        const V t175 = t174 + t172;
        const V x28 = io.in(28);
        const V t176 = t175 + x28;
        const V t177 = c[0] * t168;
        const V t178 = c[1] * t170;
        const V t179 = t177 - t178;
        const V t180 = c[2] * t172;
        const V t181 = t179 - t180;
        const V t182 = t181 + x28;
        const V t183 = c[3] * t169;
        const V t184 = c[4] * t171;
        const V t185 = c[5] * t173;
        const V t186 = t184 + t185;
        const V t187 = t186 - t183;
        const V t188 = c[1] * t168;
        const V t189 = x28 - t188;
        const V t190 = c[2] * t170;
        const V t191 = t189 - t190;
        const V t192 = c[0] * t172;
        const V t193 = t191 + t192;
        const V t194 = c[4] * t169;
        const V t195 = c[5] * t171;
        const V t196 = c[3] * t173;
        const V t197 = t194 + t195;
        const V t198 = t197 + t196;
        const V t199 = c[2] * t168;
        const V t200 = x28 - t199;
        const V t201 = c[0] * t170;
        const V t202 = t200 + t201;
        const V t203 = c[1] * t172;
        const V t204 = t202 - t203;
        const V t205 = c[5] * t169;
        const V t206 = c[3] * t171;
        const V t207 = c[4] * t173;
        const V t208 = t207 - t205;
        const V t209 = t208 - t206;
        // real block of 7
        const V x43 = io.in(43);
        const V x27 = io.in(27);
        const V t210 = x43 + x27;
        const V t211 = x43 - x27;
        const V x19 = io.in(19);
        const V x51 = io.in(51);
        const V t212 = x19 + x51;
        const V t213 = x19 - x51;
        const V x11 = io.in(11);
        const V x3 = io.in(3);
        const V t214 = x11 + x3;
        const V t215 = x11 - x3;
        const V t216 = t210 + t212;
        const V t217 = t216 + t214;
        const V x35 = io.in(35);
        const V t218 = t217 + x35;
        const V t219 = c[0] * t210;
        const V t220 = c[1] * t212;
        const V t221 = t219 - t220;
        const V t222 = c[2] * t214;
        const V t223 = t221 - t222;
        const V t224 = t223 + x35;
        const V t225 = c[3] * t211;
        const V t226 = c[4] * t213;
        const V t227 = c[5] * t215;
        const V t228 = t226 + t227;
        const V t229 = t228 - t225;
        const V t230 = c[1] * t210;
        const V t231 = x35 - t230;
        const V t232 = c[2] * t212;
        const V t233 = t231 - t232;
        const V t234 = c[0] * t214;
        const V t235 = t233 + t234;
        const V t236 = c[4] * t211;
        const V t237 = c[5] * t213;
        const V t238 = c[3] * t215;
        const V t239 = t236 + t237;
        const V t240 = t239 + t238;
        const V t241 = c[2] * t210;
        const V t242 = x35 - t241;
        const V t243 = c[0] * t212;
        const V t244 = t242 + t243;
        const V t245 = c[1] * t214;
        const V t246 = t244 - t245;
        const V t247 = c[5] * t211;
        const V t248 = c[3] * t213;
        const V t249 = c[4] * t215;
        const V t250 = t249 - t247;
        const V t251 = t250 - t248;
        // real block of 7
        const V x50 = io.in(50);
        const V x34 = io.in(34);
        const V t252 = x50 + x34;
        const V t253 = x50 - x34;
        const V x26 = io.in(26);
        const V x2 = io.in(2);
        const V t254 = x26 + x2;
        const V t255 = x26 - x2;
        const V x18 = io.in(18);
        const V x10 = io.in(10);
        const V t256 = x18 + x10;
        const V t257 = x18 - x10;
        const V t258 = t252 + t254;
        const V t259 = t258 + t256;
        const V x42 = io.in(42);
        const V t260 = t259 + x42;
        const V t261 = c[0] * t252;
        const V t262 = c[1] * t254;
        const V t263 = t261 - t262;
        const V t264 = c[2] * t256;
        const V t265 = t263 - t264;
        const V t266 = t265 + x42;
        const V t267 = c[3] * t253;
        const V t268 = c[4] * t255;
        const V t269 = c[5] * t257;
        const V t270 = t268 + t269;
        const V t271 = t270 - t267;
        const V t272 = c[1] * t252;
        const V t273 = x42 - t272;
        const V t274 = c[2] * t254;
        const V t275 = t273 - t274;
        const V t276 = c[0] * t256;
        const V t277 = t275 + t276;
        const V t278 = c[4] * t253;
        const V t279 = c[5] * t255;
        const V t280 = c[3] * t257;
        const V t281 = t278 + t279;
        const V t282 = t281 + t280;
        const V t283 = c[2] * t252;
        const V t284 = x42 - t283;
        const V t285 = c[0] * t254;
        const V t286 = t284 + t285;
        const V t287 = c[1] * t256;
        const V t288 = t286 - t287;
        const V t289 = c[5] * t253;
        const V t290 = c[3] * t255;
        const V t291 = c[4] * t257;
        const V t292 = t291 - t289;
        const V t293 = t292 - t290;
        // real block of 7
        const V x1 = io.in(1);
        const V x41 = io.in(41);
        const V t294 = x1 + x41;
        const V t295 = x1 - x41;
        const V x33 = io.in(33);
        const V x9 = io.in(9);
        const V t296 = x33 + x9;
        const V t297 = x33 - x9;
        const V x25 = io.in(25);
        const V x17 = io.in(17);
        const V t298 = x25 + x17;
        const V t299 = x25 - x17;
        const V t300 = t294 + t296;
        const V t301 = t300 + t298;
        const V x49 = io.in(49);
        const V t302 = t301 + x49;
        const V t303 = c[0] * t294;
        const V t304 = c[1] * t296;
        const V t305 = t303 - t304;
        const V t306 = c[2] * t298;
        const V t307 = t305 - t306;
        const V t308 = t307 + x49;
        const V t309 = c[3] * t295;
        const V t310 = c[4] * t297;
        const V t311 = c[5] * t299;
        const V t312 = t310 + t311;
        const V t313 = t312 - t309;
        const V t314 = c[1] * t294;
        const V t315 = x49 - t314;
        const V t316 = c[2] * t296;
        const V t317 = t315 - t316;
        const V t318 = c[0] * t298;
        const V t319 = t317 + t318;
        const V t320 = c[4] * t295;
        const V t321 = c[5] * t297;
        const V t322 = c[3] * t299;
        const V t323 = t320 + t321;
        const V t324 = t323 + t322;
        const V t325 = c[2] * t294;
        const V t326 = x49 - t325;
        const V t327 = c[0] * t296;
        const V t328 = t326 + t327;
        const V t329 = c[1] * t298;
        const V t330 = t328 - t329;
        const V t331 = c[5] * t295;
        const V t332 = c[3] * t297;
        const V t333 = c[4] * t299;
        const V t334 = t333 - t331;
        const V t335 = t334 - t332;
        // real block of 2
        const V t336 = t8 + t176;
        const V t337 = t8 - t176;
        // real block of 2
        const V t338 = t50 + t218;
        const V t339 = t50 - t218;
        // real block of 2
        const V t340 = t92 + t260;
        const V t341 = t92 - t260;
        // real block of 2
        const V t342 = t134 + t302;
        const V t343 = t134 - t302;
        // real block of 2
        const V t344 = t336 + t340;
        const V t345 = t336 - t340;
        io.re(14, t345);
        // real block of 2
        const V t346 = t338 + t342;
        const V t347 = t338 - t342;
        io.im(14, t347);
        // real block of 2
        const V t348 = t344 + t346;
        io.re(0, t348);
        const V t349 = t344 - t346;
        io.re(28, t349);
        // skew block of 4, multiplier 7
        const V t350 = t339 - t343;
        const V t351 = c[6] * t350;
        const V t352 = t339 + t343;
        const V t353 = c[6] * t352;
        const V t354 = t341 - t353;
        io.minusIm(21, t354);
        const V t355 = t337 + t351;
        io.re(7, t355);
        const V t356 = t341 + t353;
        io.im(7, t356);
        const V t357 = t337 - t351;
        io.re(21, t357);
        // complex block of 2
        const V t358 = t14 + t182;
        const V t359 = t19 + t187;
        const V t360 = t14 - t182;
        const V t361 = t19 - t187;
        // complex block of 2
        const V t362 = t56 + t224;
        const V t363 = t61 + t229;
        const V t364 = t56 - t224;
        const V t365 = t61 - t229;
        // complex block of 2
        const V t366 = t98 + t266;
        const V t367 = t103 + t271;
        const V t368 = t98 - t266;
        const V t369 = t103 - t271;
        // complex block of 2
        const V t370 = t140 + t308;
        const V t371 = t145 + t313;
        const V t372 = t140 - t308;
        const V t373 = t145 - t313;
        // complex block of 2
        const V t374 = t358 + t366;
        const V t375 = t359 + t367;
        const V t376 = t358 - t366;
        const V t377 = t359 - t367;
        // complex block of 2
        const V t378 = t362 + t370;
        const V t379 = t363 + t371;
        const V t380 = t362 - t370;
        const V t381 = t363 - t371;
        // complex block of 2
        const V t382 = t374 + t378;
        io.re(8, t382);
        const V t383 = t375 + t379;
        io.im(8, t383);
        const V t384 = t374 - t378;
        io.re(20, t384);
        const V t385 = t375 - t379;
        io.minusIm(20, t385);
        // complex block of 2
        const V t386 = t376 - t381;
        io.re(22, t386);
        const V t387 = t377 + t380;
        io.im(22, t387);
        const V t388 = t376 + t381;
        io.re(6, t388);
        const V t389 = t377 - t380;
        io.minusIm(6, t389);
        // complex block of 8, multiplier 7
        const V t390 = c[6] * t364;
        const V t391 = c[6] * t365;
        const V t392 = t390 + t391;
        const V t393 = t391 - t390;
        const V t394 = c[6] * t372;
        const V t395 = c[6] * t373;
        const V t396 = t394 + t395;
        const V t397 = t395 - t394;
        // complex block of 2
        const V t398 = t360 - t369;
        const V t399 = t361 + t368;
        const V t400 = t360 + t369;
        const V t401 = t361 - t368;
        // complex block of 2
        const V t402 = t393 + t396;
        const V t403 = t392 - t397;
        const V t404 = t396 - t393;
        const V t405 = t392 + t397;
        // complex block of 2
        const V t406 = t398 - t402;
        io.re(15, t406);
        const V t407 = t399 + t403;
        io.im(15, t407);
        const V t408 = t398 + t402;
        io.re(13, t408);
        const V t409 = t399 - t403;
        io.minusIm(13, t409);
        // complex block of 2
        const V t410 = t400 - t405;
        io.re(27, t410);
        const V t411 = t401 + t404;
        io.minusIm(27, t411);
        const V t412 = t400 + t405;
        io.re(1, t412);
        const V t413 = t401 - t404;
        io.im(1, t413);
        // complex block of 2
        const V t414 = t25 + t193;
        const V t415 = t30 + t198;
        const V t416 = t25 - t193;
        const V t417 = t198 - t30;
        // complex block of 2
        const V t418 = t67 + t235;
        const V t419 = t72 + t240;
        const V t420 = t67 - t235;
        const V t421 = t240 - t72;
        // complex block of 2
        const V t422 = t109 + t277;
        const V t423 = t114 + t282;
        const V t424 = t109 - t277;
        const V t425 = t282 - t114;
        // complex block of 2
        const V t426 = t151 + t319;
        const V t427 = t156 + t324;
        const V t428 = t151 - t319;
        const V t429 = t324 - t156;
        // complex block of 2
        const V t430 = t414 + t422;
        const V t431 = t415 + t423;
        const V t432 = t414 - t422;
        const V t433 = t423 - t415;
        // complex block of 2
        const V t434 = t418 + t426;
        const V t435 = t419 + t427;
        const V t436 = t418 - t426;
        const V t437 = t427 - t419;
        // complex block of 2
        const V t438 = t430 + t434;
        io.re(16, t438);
        const V t439 = t431 + t435;
        io.minusIm(16, t439);
        const V t440 = t430 - t434;
        io.re(12, t440);
        const V t441 = t435 - t431;
        io.minusIm(12, t441);
        // complex block of 2
        const V t442 = t432 - t437;
        io.re(26, t442);
        const V t443 = t433 + t436;
        io.minusIm(26, t443);
        const V t444 = t432 + t437;
        io.re(2, t444);
        const V t445 = t433 - t436;
        io.im(2, t445);
        // complex block of 8, multiplier 7
        const V t446 = c[6] * t420;
        const V t447 = c[6] * t421;
        const V t448 = t446 + t447;
        const V t449 = t447 - t446;
        const V t450 = c[6] * t428;
        const V t451 = c[6] * t429;
        const V t452 = t450 + t451;
        const V t453 = t451 - t450;
        // complex block of 2
        const V t454 = t416 - t425;
        const V t455 = t417 + t424;
        const V t456 = t416 + t425;
        const V t457 = t417 - t424;
        // complex block of 2
        const V t458 = t449 + t452;
        const V t459 = t448 - t453;
        const V t460 = t452 - t449;
        const V t461 = t448 + t453;
        // complex block of 2
        const V t462 = t454 - t458;
        io.re(23, t462);
        const V t463 = t455 + t459;
        io.im(23, t463);
        const V t464 = t454 + t458;
        io.re(5, t464);
        const V t465 = t455 - t459;
        io.minusIm(5, t465);
        // complex block of 2
        const V t466 = t456 - t461;
        io.re(19, t466);
        const V t467 = t457 + t460;
        io.minusIm(19, t467);
        const V t468 = t456 + t461;
        io.re(9, t468);
        const V t469 = t457 - t460;
        io.im(9, t469);
        // complex block of 2
        const V t470 = t36 + t204;
        const V t471 = t41 + t209;
        const V t472 = t36 - t204;
        const V t473 = t41 - t209;
        // complex block of 2
        const V t474 = t78 + t246;
        const V t475 = t83 + t251;
        const V t476 = t78 - t246;
        const V t477 = t83 - t251;
        // complex block of 2
        const V t478 = t120 + t288;
        const V t479 = t125 + t293;
        const V t480 = t120 - t288;
        const V t481 = t125 - t293;
        // complex block of 2
        const V t482 = t162 + t330;
        const V t483 = t167 + t335;
        const V t484 = t162 - t330;
        const V t485 = t167 - t335;
        // complex block of 2
        const V t486 = t470 + t478;
        const V t487 = t471 + t479;
        const V t488 = t470 - t478;
        const V t489 = t471 - t479;
        // complex block of 2
        const V t490 = t474 + t482;
        const V t491 = t475 + t483;
        const V t492 = t474 - t482;
        const V t493 = t475 - t483;
        // complex block of 2
        const V t494 = t486 + t490;
        io.re(24, t494);
        const V t495 = t487 + t491;
        io.im(24, t495);
        const V t496 = t486 - t490;
        io.re(4, t496);
        const V t497 = t487 - t491;
        io.minusIm(4, t497);
        // complex block of 2
        const V t498 = t488 - t493;
        io.re(18, t498);
        const V t499 = t489 + t492;
        io.minusIm(18, t499);
        const V t500 = t488 + t493;
        io.re(10, t500);
        const V t501 = t489 - t492;
        io.im(10, t501);
        // complex block of 8, multiplier 7
        const V t502 = c[6] * t476;
        const V t503 = c[6] * t477;
        const V t504 = t502 + t503;
        const V t505 = t503 - t502;
        const V t506 = c[6] * t484;
        const V t507 = c[6] * t485;
        const V t508 = t506 + t507;
        const V t509 = t507 - t506;
        // complex block of 2
        const V t510 = t472 - t481;
        const V t511 = t473 + t480;
        const V t512 = t472 + t481;
        const V t513 = t473 - t480;
        // complex block of 2
        const V t514 = t505 + t508;
        const V t515 = t504 - t509;
        const V t516 = t508 - t505;
        const V t517 = t504 + t509;
        // complex block of 2
        const V t518 = t510 - t514;
        io.re(25, t518);
        const V t519 = t511 + t515;
        io.minusIm(25, t519);
        const V t520 = t510 + t514;
        io.re(3, t520);
        const V t521 = t511 - t515;
        io.im(3, t521);
        // complex block of 2
        const V t522 = t512 - t517;
        io.re(11, t522);
        const V t523 = t513 + t516;
        io.minusIm(11, t523);
        const V t524 = t512 + t517;
        io.re(17, t524);
        const V t525 = t513 - t516;
        io.im(17, t525);
    }
};

}  // namespace zulg
