// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 42.
// Complex DFT of 42 points, prime-factor, order 7, 3, 2.
// 306 additions, 306 subtractions, 272 multiplications (356 with `scale`); 8 constants; 106 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<42> {
    static constexpr int steps = 968;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.7818314824680298,  // c[1]: sin 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 5/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.9009688679024191,  // c[4]: -cos 2 pi 4/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 7, multiplier 6
        const V x6r = io.re(6);
        const V x36r = io.re(36);
        const V t0 = x6r + x36r;
        const V t1 = x6r - x36r;
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t1;
        const V t4 = c[2] * t0;
        const V t5 = c[3] * t1;
        const V t6 = c[4] * t0;
        const V t7 = c[5] * t1;
        const V x30r = io.re(30);
        const V x12r = io.re(12);
        const V t8 = x30r + x12r;
        const V t9 = x30r - x12r;
        const V t10 = c[2] * t8;
        const V t11 = c[3] * t9;
        const V t12 = c[5] * t9;
        const V t13 = c[1] * t9;
        const V x24r = io.re(24);
        const V x18r = io.re(18);
        const V t14 = x24r + x18r;
        const V t15 = x24r - x18r;
        const V t16 = t0 + t8;
        const V t17 = t16 + t14;
        const V t18 = t2 - t10;
        const V t19 = c[4] * t14;
        const V t20 = t18 - t19;
        const V t21 = t3 - t11;
        const V t22 = c[5] * t15;
        const V t23 = t21 - t22;
        const V x0r = io.re(0);
        const V t24 = x0r - t4;
        const V t25 = c[4] * t8;
        const V t26 = t24 - t25;
        const V t27 = c[0] * t14;
        const V t28 = t5 + t12;
        const V t29 = c[1] * t15;
        const V t30 = t28 + t29;
        const V t31 = x0r - t6;
        const V t32 = c[0] * t8;
        const V t33 = t31 + t32;
        const V t34 = c[2] * t14;
        const V t35 = t7 + t13;
        const V t36 = c[3] * t15;
        const V t37 = t35 - t36;
        const V x6i = io.im(6);
        const V x36i = io.im(36);
        const V t38 = x6i + x36i;
        const V t39 = x6i - x36i;
        const V t40 = c[0] * t38;
        const V t41 = c[1] * t39;
        const V t42 = c[2] * t38;
        const V t43 = c[3] * t39;
        const V t44 = c[4] * t38;
        const V t45 = c[5] * t39;
        const V x30i = io.im(30);
        const V x12i = io.im(12);
        const V t46 = x30i + x12i;
        const V t47 = x30i - x12i;
        const V t48 = c[2] * t46;
        const V t49 = c[3] * t47;
        const V t50 = c[5] * t47;
        const V t51 = c[1] * t47;
        const V x24i = io.im(24);
        const V x18i = io.im(18);
        const V t52 = x24i + x18i;
        const V t53 = x24i - x18i;
        const V t54 = t38 + t46;
        const V t55 = t54 + t52;
        const V t56 = t40 - t48;
        const V t57 = c[4] * t52;
        const V t58 = t56 - t57;
        const V t59 = t41 - t49;
        const V t60 = c[5] * t53;
        const V t61 = t59 - t60;
        const V x0i = io.im(0);
        const V t62 = x0i - t42;
        const V t63 = c[4] * t46;
        const V t64 = t62 - t63;
        const V t65 = c[0] * t52;
        const V t66 = t43 + t50;
        const V t67 = c[1] * t53;
        const V t68 = t66 + t67;
        const V t69 = x0i - t44;
        const V t70 = c[0] * t46;
        const V t71 = t69 + t70;
        const V t72 = c[2] * t52;
        const V t73 = t45 + t51;
        const V t74 = c[3] * t53;
        const V t75 = t73 - t74;
        // complex block of 7, multiplier 6
        const V x13r = io.re(13);
        const V x1r = io.re(1);
        const V t76 = x13r + x1r;
        const V t77 = x13r - x1r;
        const V x37r = io.re(37);
        const V x19r = io.re(19);
        const V t78 = x37r + x19r;
        const V t79 = x37r - x19r;
        const V t80 = t76 + t78;
        const V t81 = c[0] * t76;
        const V t82 = c[2] * t78;
        const V t83 = c[1] * t77;
        const V t84 = c[3] * t79;
        const V t85 = c[2] * t76;
        const V t86 = c[4] * t78;
        const V t87 = c[3] * t77;
        const V t88 = c[5] * t79;
        const V t89 = c[4] * t76;
        const V t90 = c[0] * t78;
        const V t91 = c[5] * t77;
        const V t92 = c[1] * t79;
        const V x31r = io.re(31);
        const V x25r = io.re(25);
        const V t93 = x31r + x25r;
        const V t94 = x31r - x25r;
        const V t95 = c[4] * t93;
        const V t96 = t80 + t93;
        const V x7r = io.re(7);
        const V t97 = t96 + x7r;
        const V t98 = t81 - t82;
        const V t99 = t98 - t95;
        const V t100 = t99 + x7r;
        const V t101 = t83 - t84;
        const V t102 = c[5] * t94;
        const V t103 = t101 - t102;
        const V t104 = x7r - t85;
        const V t105 = t104 - t86;
        const V t106 = c[0] * t93;
        const V t107 = t105 + t106;
        const V t108 = t87 + t88;
        const V t109 = c[1] * t94;
        const V t110 = t108 + t109;
        const V t111 = x7r - t89;
        const V t112 = t111 + t90;
        const V t113 = c[2] * t93;
        const V t114 = t112 - t113;
        const V t115 = t91 + t92;
        const V t116 = c[3] * t94;
        const V t117 = t115 - t116;
        const V x13i = io.im(13);
        const V x1i = io.im(1);
        const V t118 = x13i + x1i;
        const V t119 = x13i - x1i;
        const V x37i = io.im(37);
        const V x19i = io.im(19);
        const V t120 = x37i + x19i;
        const V t121 = x37i - x19i;
        const V t122 = t118 + t120;
        const V t123 = c[0] * t118;
        const V t124 = c[2] * t120;
        const V t125 = c[1] * t119;
        const V t126 = c[3] * t121;
        const V t127 = c[2] * t118;
        const V t128 = c[4] * t120;
        const V t129 = c[3] * t119;
        const V t130 = c[5] * t121;
        const V t131 = c[4] * t118;
        const V t132 = c[0] * t120;
        const V t133 = c[5] * t119;
        const V t134 = c[1] * t121;
        const V x31i = io.im(31);
        const V x25i = io.im(25);
        const V t135 = x31i + x25i;
        const V t136 = x31i - x25i;
        const V t137 = c[4] * t135;
        const V t138 = t122 + t135;
        const V x7i = io.im(7);
        const V t139 = t138 + x7i;
        const V t140 = t123 - t124;
        const V t141 = t140 - t137;
        const V t142 = t141 + x7i;
        const V t143 = t125 - t126;
        const V t144 = c[5] * t136;
        const V t145 = t143 - t144;
        const V t146 = x7i - t127;
        const V t147 = t146 - t128;
        const V t148 = c[0] * t135;
        const V t149 = t147 + t148;
        const V t150 = t129 + t130;
        const V t151 = c[1] * t136;
        const V t152 = t150 + t151;
        const V t153 = x7i - t131;
        const V t154 = t153 + t132;
        const V t155 = c[2] * t135;
        const V t156 = t154 - t155;
        const V t157 = t133 + t134;
        const V t158 = c[3] * t136;
        const V t159 = t157 - t158;
        // complex block of 7, multiplier 6
        const V x2r = io.re(2);
        const V x26r = io.re(26);
        const V t160 = x2r + x26r;
        const V t161 = x2r - x26r;
        const V x20r = io.re(20);
        const V x8r = io.re(8);
        const V t162 = x20r + x8r;
        const V t163 = x20r - x8r;
        const V t164 = t162 + t160;
        const V t165 = c[0] * t162;
        const V t166 = c[2] * t160;
        const V t167 = c[1] * t163;
        const V t168 = c[3] * t161;
        const V t169 = c[2] * t162;
        const V t170 = c[4] * t160;
        const V t171 = c[3] * t163;
        const V t172 = c[5] * t161;
        const V t173 = c[4] * t162;
        const V t174 = c[0] * t160;
        const V t175 = c[5] * t163;
        const V t176 = c[1] * t161;
        const V x38r = io.re(38);
        const V x32r = io.re(32);
        const V t177 = x38r + x32r;
        const V t178 = x38r - x32r;
        const V t179 = c[4] * t177;
        const V t180 = t164 + t177;
        const V x14r = io.re(14);
        const V t181 = t180 + x14r;
        const V t182 = t165 - t166;
        const V t183 = t182 - t179;
        const V t184 = t183 + x14r;
        const V t185 = t167 - t168;
        const V t186 = c[5] * t178;
        const V t187 = t185 - t186;
        const V t188 = x14r - t169;
        const V t189 = t188 - t170;
        const V t190 = c[0] * t177;
        const V t191 = t189 + t190;
        const V t192 = t171 + t172;
        const V t193 = c[1] * t178;
        const V t194 = t192 + t193;
        const V t195 = x14r - t173;
        const V t196 = t195 + t174;
        const V t197 = c[2] * t177;
        const V t198 = t196 - t197;
        const V t199 = t175 + t176;
        const V t200 = c[3] * t178;
        const V t201 = t199 - t200;
        const V x2i = io.im(2);
        const V x26i = io.im(26);
        const V t202 = x2i + x26i;
        const V t203 = x2i - x26i;
        const V x20i = io.im(20);
        const V x8i = io.im(8);
        const V t204 = x20i + x8i;
        const V t205 = x20i - x8i;
        const V t206 = t204 + t202;
        const V t207 = c[0] * t204;
        const V t208 = c[2] * t202;
        const V t209 = c[1] * t205;
        const V t210 = c[3] * t203;
        const V t211 = c[2] * t204;
        const V t212 = c[4] * t202;
        const V t213 = c[3] * t205;
        const V t214 = c[5] * t203;
        const V t215 = c[4] * t204;
        const V t216 = c[0] * t202;
        const V t217 = c[5] * t205;
        const V t218 = c[1] * t203;
        const V x38i = io.im(38);
        const V x32i = io.im(32);
        const V t219 = x38i + x32i;
        const V t220 = x38i - x32i;
        const V t221 = c[4] * t219;
        const V t222 = t206 + t219;
        const V x14i = io.im(14);
        const V t223 = t222 + x14i;
        const V t224 = t207 - t208;
        const V t225 = t224 - t221;
        const V t226 = t225 + x14i;
        const V t227 = t209 - t210;
        const V t228 = c[5] * t220;
        const V t229 = t227 - t228;
        const V t230 = x14i - t211;
        const V t231 = t230 - t212;
        const V t232 = c[0] * t219;
        const V t233 = t231 + t232;
        const V t234 = t213 + t214;
        const V t235 = c[1] * t220;
        const V t236 = t234 + t235;
        const V t237 = x14i - t215;
        const V t238 = t237 + t216;
        const V t239 = c[2] * t219;
        const V t240 = t238 - t239;
        const V t241 = t217 + t218;
        const V t242 = c[3] * t220;
        const V t243 = t241 - t242;
        // complex block of 7, multiplier 6
        const V x3r = io.re(3);
        const V x39r = io.re(39);
        const V t244 = x3r + x39r;
        const V t245 = x3r - x39r;
        const V x9r = io.re(9);
        const V x33r = io.re(33);
        const V t246 = x9r + x33r;
        const V t247 = x9r - x33r;
        const V t248 = c[2] * t246;
        const V t249 = c[3] * t247;
        const V t250 = c[5] * t247;
        const V t251 = c[1] * t247;
        const V x27r = io.re(27);
        const V x15r = io.re(15);
        const V t252 = x27r + x15r;
        const V t253 = x27r - x15r;
        const V t254 = c[0] * t252;
        const V t255 = c[1] * t253;
        const V t256 = c[2] * t252;
        const V t257 = c[3] * t253;
        const V t258 = c[4] * t252;
        const V t259 = c[5] * t253;
        const V t260 = t252 + t246;
        const V t261 = t260 + t244;
        const V t262 = t254 - t248;
        const V t263 = c[4] * t244;
        const V t264 = t262 - t263;
        const V t265 = t255 - t249;
        const V t266 = c[5] * t245;
        const V t267 = t265 - t266;
        const V x21r = io.re(21);
        const V t268 = x21r - t256;
        const V t269 = c[4] * t246;
        const V t270 = t268 - t269;
        const V t271 = c[0] * t244;
        const V t272 = t257 + t250;
        const V t273 = c[1] * t245;
        const V t274 = t272 + t273;
        const V t275 = x21r - t258;
        const V t276 = c[0] * t246;
        const V t277 = t275 + t276;
        const V t278 = c[2] * t244;
        const V t279 = t259 + t251;
        const V t280 = c[3] * t245;
        const V t281 = t279 - t280;
        const V x3i = io.im(3);
        const V x39i = io.im(39);
        const V t282 = x3i + x39i;
        const V t283 = x3i - x39i;
        const V x9i = io.im(9);
        const V x33i = io.im(33);
        const V t284 = x9i + x33i;
        const V t285 = x9i - x33i;
        const V t286 = c[2] * t284;
        const V t287 = c[3] * t285;
        const V t288 = c[5] * t285;
        const V t289 = c[1] * t285;
        const V x27i = io.im(27);
        const V x15i = io.im(15);
        const V t290 = x27i + x15i;
        const V t291 = x27i - x15i;
        const V t292 = c[0] * t290;
        const V t293 = c[1] * t291;
        const V t294 = c[2] * t290;
        const V t295 = c[3] * t291;
        const V t296 = c[4] * t290;
        const V t297 = c[5] * t291;
        const V t298 = t290 + t284;
        const V t299 = t298 + t282;
        const V t300 = t292 - t286;
        const V t301 = c[4] * t282;
        const V t302 = t300 - t301;
        const V t303 = t293 - t287;
        const V t304 = c[5] * t283;
        const V t305 = t303 - t304;
        const V x21i = io.im(21);
        const V t306 = x21i - t294;
        const V t307 = c[4] * t284;
        const V t308 = t306 - t307;
        const V t309 = c[0] * t282;
        const V t310 = t295 + t288;
        const V t311 = c[1] * t283;
        const V t312 = t310 + t311;
        const V t313 = x21i - t296;
        const V t314 = c[0] * t284;
        const V t315 = t313 + t314;
        const V t316 = c[2] * t282;
        const V t317 = t297 + t289;
        const V t318 = c[3] * t283;
        const V t319 = t317 - t318;
        // complex block of 7, multiplier 6
        const V x10r = io.re(10);
        const V x4r = io.re(4);
        const V t320 = x10r + x4r;
        const V t321 = x10r - x4r;
        const V t322 = c[4] * t320;
        const V x16r = io.re(16);
        const V x40r = io.re(40);
        const V t323 = x16r + x40r;
        const V t324 = x16r - x40r;
        const V x34r = io.re(34);
        const V x22r = io.re(22);
        const V t325 = x34r + x22r;
        const V t326 = x34r - x22r;
        const V t327 = t325 + t323;
        const V t328 = c[0] * t325;
        const V t329 = c[2] * t323;
        const V t330 = c[1] * t326;
        const V t331 = c[3] * t324;
        const V t332 = c[2] * t325;
        const V t333 = c[4] * t323;
        const V t334 = c[3] * t326;
        const V t335 = c[5] * t324;
        const V t336 = c[4] * t325;
        const V t337 = c[0] * t323;
        const V t338 = c[5] * t326;
        const V t339 = c[1] * t324;
        const V t340 = t327 + t320;
        const V x28r = io.re(28);
        const V t341 = t340 + x28r;
        const V t342 = t328 - t329;
        const V t343 = t342 - t322;
        const V t344 = t343 + x28r;
        const V t345 = t330 - t331;
        const V t346 = c[5] * t321;
        const V t347 = t345 - t346;
        const V t348 = x28r - t332;
        const V t349 = t348 - t333;
        const V t350 = c[0] * t320;
        const V t351 = t349 + t350;
        const V t352 = t334 + t335;
        const V t353 = c[1] * t321;
        const V t354 = t352 + t353;
        const V t355 = x28r - t336;
        const V t356 = t355 + t337;
        const V t357 = c[2] * t320;
        const V t358 = t356 - t357;
        const V t359 = t338 + t339;
        const V t360 = c[3] * t321;
        const V t361 = t359 - t360;
        const V x10i = io.im(10);
        const V x4i = io.im(4);
        const V t362 = x10i + x4i;
        const V t363 = x10i - x4i;
        const V t364 = c[4] * t362;
        const V x16i = io.im(16);
        const V x40i = io.im(40);
        const V t365 = x16i + x40i;
        const V t366 = x16i - x40i;
        const V x34i = io.im(34);
        const V x22i = io.im(22);
        const V t367 = x34i + x22i;
        const V t368 = x34i - x22i;
        const V t369 = t367 + t365;
        const V t370 = c[0] * t367;
        const V t371 = c[2] * t365;
        const V t372 = c[1] * t368;
        const V t373 = c[3] * t366;
        const V t374 = c[2] * t367;
        const V t375 = c[4] * t365;
        const V t376 = c[3] * t368;
        const V t377 = c[5] * t366;
        const V t378 = c[4] * t367;
        const V t379 = c[0] * t365;
        const V t380 = c[5] * t368;
        const V t381 = c[1] * t366;
        const V t382 = t369 + t362;
        const V x28i = io.im(28);
        const V t383 = t382 + x28i;
        const V t384 = t370 - t371;
        const V t385 = t384 - t364;
        const V t386 = t385 + x28i;
        const V t387 = t372 - t373;
        const V t388 = c[5] * t363;
        const V t389 = t387 - t388;
        const V t390 = x28i - t374;
        const V t391 = t390 - t375;
        const V t392 = c[0] * t362;
        const V t393 = t391 + t392;
        const V t394 = t376 + t377;
        const V t395 = c[1] * t363;
        const V t396 = t394 + t395;
        const V t397 = x28i - t378;
        const V t398 = t397 + t379;
        const V t399 = c[2] * t362;
        const V t400 = t398 - t399;
        const V t401 = t380 + t381;
        const V t402 = c[3] * t363;
        const V t403 = t401 - t402;
        // complex block of 7, multiplier 6
        const V x23r = io.re(23);
        const V x5r = io.re(5);
        const V t404 = x23r + x5r;
        const V t405 = x23r - x5r;
        const V x41r = io.re(41);
        const V x29r = io.re(29);
        const V t406 = x41r + x29r;
        const V t407 = x41r - x29r;
        const V t408 = t406 + t404;
        const V t409 = c[0] * t406;
        const V t410 = c[2] * t404;
        const V t411 = c[1] * t407;
        const V t412 = c[3] * t405;
        const V t413 = c[2] * t406;
        const V t414 = c[4] * t404;
        const V t415 = c[3] * t407;
        const V t416 = c[5] * t405;
        const V t417 = c[4] * t406;
        const V t418 = c[0] * t404;
        const V t419 = c[5] * t407;
        const V t420 = c[1] * t405;
        const V x17r = io.re(17);
        const V x11r = io.re(11);
        const V t421 = x17r + x11r;
        const V t422 = x17r - x11r;
        const V t423 = c[4] * t421;
        const V t424 = t408 + t421;
        const V x35r = io.re(35);
        const V t425 = t424 + x35r;
        const V t426 = t409 - t410;
        const V t427 = t426 - t423;
        const V t428 = t427 + x35r;
        const V t429 = t411 - t412;
        const V t430 = c[5] * t422;
        const V t431 = t429 - t430;
        const V t432 = x35r - t413;
        const V t433 = t432 - t414;
        const V t434 = c[0] * t421;
        const V t435 = t433 + t434;
        const V t436 = t415 + t416;
        const V t437 = c[1] * t422;
        const V t438 = t436 + t437;
        const V t439 = x35r - t417;
        const V t440 = t439 + t418;
        const V t441 = c[2] * t421;
        const V t442 = t440 - t441;
        const V t443 = t419 + t420;
        const V t444 = c[3] * t422;
        const V t445 = t443 - t444;
        const V x23i = io.im(23);
        const V x5i = io.im(5);
        const V t446 = x23i + x5i;
        const V t447 = x23i - x5i;
        const V x41i = io.im(41);
        const V x29i = io.im(29);
        const V t448 = x41i + x29i;
        const V t449 = x41i - x29i;
        const V t450 = t448 + t446;
        const V t451 = c[0] * t448;
        const V t452 = c[2] * t446;
        const V t453 = c[1] * t449;
        const V t454 = c[3] * t447;
        const V t455 = c[2] * t448;
        const V t456 = c[4] * t446;
        const V t457 = c[3] * t449;
        const V t458 = c[5] * t447;
        const V t459 = c[4] * t448;
        const V t460 = c[0] * t446;
        const V t461 = c[5] * t449;
        const V t462 = c[1] * t447;
        const V x17i = io.im(17);
        const V x11i = io.im(11);
        const V t463 = x17i + x11i;
        const V t464 = x17i - x11i;
        const V t465 = c[4] * t463;
        const V t466 = t450 + t463;
        const V x35i = io.im(35);
        const V t467 = t466 + x35i;
        const V t468 = t451 - t452;
        const V t469 = t468 - t465;
        const V t470 = t469 + x35i;
        const V t471 = t453 - t454;
        const V t472 = c[5] * t464;
        const V t473 = t471 - t472;
        const V t474 = x35i - t455;
        const V t475 = t474 - t456;
        const V t476 = c[0] * t463;
        const V t477 = t475 + t476;
        const V t478 = t457 + t458;
        const V t479 = c[1] * t464;
        const V t480 = t478 + t479;
        const V t481 = x35i - t459;
        const V t482 = t481 + t460;
        const V t483 = c[2] * t463;
        const V t484 = t482 - t483;
        const V t485 = t461 + t462;
        const V t486 = c[3] * t464;
        const V t487 = t485 - t486;
        // complex block of 7, multiplier 6
        const V t488 = t17 + x0r;
        // complex block of 3, multiplier 2
        const V t489 = t181 + t341;
        const V t490 = c[6] * t489;
        const V t491 = t489 + t488;
        const V t492 = t488 - t490;
        // complex block of 7, multiplier 6
        const V t493 = t261 + x21r;
        // complex block of 3, multiplier 2
        const V t494 = t425 + t97;
        const V t495 = c[6] * t494;
        const V t496 = t494 + t493;
        const V t497 = t493 - t495;
        // complex block of 3, multiplier 2
        const V t498 = t223 - t383;
        const V t499 = c[7] * t498;
        // complex block of 3, multiplier 2
        const V t500 = t467 - t139;
        const V t501 = c[7] * t500;
        // complex block of 3, multiplier 2
        const V t502 = t492 + t499;
        // complex block of 3, multiplier 2
        const V t503 = t497 + t501;
        // complex block of 2
        const V t504 = t502 + t503;
        io.re(28, t504);
        const V t505 = t502 - t503;
        io.re(7, t505);
        // complex block of 3, multiplier 2
        const V t506 = t492 - t499;
        // complex block of 3, multiplier 2
        const V t507 = t497 - t501;
        // complex block of 2
        const V t508 = t506 + t507;
        io.re(14, t508);
        const V t509 = t506 - t507;
        io.re(35, t509);
        // complex block of 2
        const V t510 = t491 + t496;
        io.re(0, t510);
        const V t511 = t491 - t496;
        io.re(21, t511);
        // complex block of 7, multiplier 6
        const V t512 = t55 + x0i;
        // complex block of 3, multiplier 2
        const V t513 = t223 + t383;
        const V t514 = c[6] * t513;
        const V t515 = t513 + t512;
        const V t516 = t512 - t514;
        // complex block of 7, multiplier 6
        const V t517 = t299 + x21i;
        // complex block of 3, multiplier 2
        const V t518 = t467 + t139;
        const V t519 = c[6] * t518;
        const V t520 = t518 + t517;
        const V t521 = t517 - t519;
        // complex block of 3, multiplier 2
        const V t522 = t181 - t341;
        const V t523 = c[7] * t522;
        // complex block of 3, multiplier 2
        const V t524 = t425 - t97;
        const V t525 = c[7] * t524;
        // complex block of 3, multiplier 2
        const V t526 = t516 - t523;
        // complex block of 3, multiplier 2
        const V t527 = t521 - t525;
        // complex block of 2
        const V t528 = t526 + t527;
        io.im(28, t528);
        const V t529 = t526 - t527;
        io.im(7, t529);
        // complex block of 3, multiplier 2
        const V t530 = t516 + t523;
        // complex block of 3, multiplier 2
        const V t531 = t521 + t525;
        // complex block of 2
        const V t532 = t530 + t531;
        io.im(14, t532);
        const V t533 = t530 - t531;
        io.im(35, t533);
        // complex block of 2
        const V t534 = t515 + t520;
        io.im(0, t534);
        const V t535 = t515 - t520;
        io.im(21, t535);
        // complex block of 7, multiplier 6
        const V t536 = t20 + x0r;
        const V t537 = t536 + t61;
        const V t538 = t536 - t61;
        const V t539 = t58 + x0i;
        const V t540 = t539 - t23;
        const V t541 = t539 + t23;
        // complex block of 7, multiplier 6
        const V t542 = t264 + x21r;
        const V t543 = t542 + t305;
        const V t544 = t542 - t305;
        const V t545 = t302 + x21i;
        const V t546 = t545 - t267;
        const V t547 = t545 + t267;
        // complex block of 7, multiplier 6
        const V t548 = t184 + t229;
        // complex block of 7, multiplier 6
        const V t549 = t344 + t389;
        // complex block of 3, multiplier 2
        const V t550 = t548 + t549;
        const V t551 = t548 - t549;
        const V t552 = c[6] * t550;
        const V t553 = c[7] * t551;
        // complex block of 7, multiplier 6
        const V t554 = t226 - t187;
        // complex block of 7, multiplier 6
        const V t555 = t386 - t347;
        // complex block of 3, multiplier 2
        const V t556 = t554 + t555;
        const V t557 = t554 - t555;
        const V t558 = c[6] * t556;
        const V t559 = c[7] * t557;
        // complex block of 7, multiplier 6
        const V t560 = t184 - t229;
        // complex block of 7, multiplier 6
        const V t561 = t344 - t389;
        // complex block of 3, multiplier 2
        const V t562 = t560 + t561;
        const V t563 = t560 - t561;
        const V t564 = c[6] * t562;
        const V t565 = c[7] * t563;
        // complex block of 7, multiplier 6
        const V t566 = t226 + t187;
        // complex block of 7, multiplier 6
        const V t567 = t386 + t347;
        // complex block of 3, multiplier 2
        const V t568 = t566 + t567;
        const V t569 = t566 - t567;
        const V t570 = c[6] * t568;
        const V t571 = c[7] * t569;
        // complex block of 7, multiplier 6
        const V t572 = t428 + t473;
        // complex block of 7, multiplier 6
        const V t573 = t100 + t145;
        // complex block of 3, multiplier 2
        const V t574 = t572 + t573;
        const V t575 = t572 - t573;
        const V t576 = c[6] * t574;
        const V t577 = c[7] * t575;
        // complex block of 7, multiplier 6
        const V t578 = t470 - t431;
        // complex block of 7, multiplier 6
        const V t579 = t142 - t103;
        // complex block of 3, multiplier 2
        const V t580 = t578 + t579;
        const V t581 = t578 - t579;
        const V t582 = c[6] * t580;
        const V t583 = c[7] * t581;
        // complex block of 7, multiplier 6
        const V t584 = t428 - t473;
        // complex block of 7, multiplier 6
        const V t585 = t100 - t145;
        // complex block of 3, multiplier 2
        const V t586 = t584 + t585;
        const V t587 = t584 - t585;
        const V t588 = c[6] * t586;
        const V t589 = c[7] * t587;
        // complex block of 7, multiplier 6
        const V t590 = t470 + t431;
        // complex block of 7, multiplier 6
        const V t591 = t142 + t103;
        // complex block of 3, multiplier 2
        const V t592 = t590 + t591;
        const V t593 = t590 - t591;
        const V t594 = c[6] * t592;
        const V t595 = c[7] * t593;
        // complex block of 3, multiplier 2
        const V t596 = t562 + t538;
        // complex block of 3, multiplier 2
        const V t597 = t586 + t544;
        // complex block of 2
        const V t598 = t596 + t597;
        io.re(6, t598);
        const V t599 = t596 - t597;
        io.re(27, t599);
        // complex block of 3, multiplier 2
        const V t600 = t568 + t541;
        // complex block of 3, multiplier 2
        const V t601 = t592 + t547;
        // complex block of 2
        const V t602 = t600 + t601;
        io.im(6, t602);
        const V t603 = t600 - t601;
        io.im(27, t603);
        // complex block of 3, multiplier 2
        const V t604 = t538 - t564;
        const V t605 = t604 + t571;
        const V t606 = t604 - t571;
        // complex block of 3, multiplier 2
        const V t607 = t544 - t588;
        const V t608 = t607 + t595;
        const V t609 = t607 - t595;
        // complex block of 2
        const V t610 = t606 + t609;
        io.re(20, t610);
        const V t611 = t606 - t609;
        io.re(41, t611);
        // complex block of 2
        const V t612 = t605 + t608;
        io.re(34, t612);
        const V t613 = t605 - t608;
        io.re(13, t613);
        // complex block of 3, multiplier 2
        const V t614 = t541 - t570;
        const V t615 = t614 - t565;
        const V t616 = t614 + t565;
        // complex block of 3, multiplier 2
        const V t617 = t547 - t594;
        const V t618 = t617 - t589;
        const V t619 = t617 + t589;
        // complex block of 2
        const V t620 = t616 + t619;
        io.im(20, t620);
        const V t621 = t616 - t619;
        io.im(41, t621);
        // complex block of 2
        const V t622 = t615 + t618;
        io.im(34, t622);
        const V t623 = t615 - t618;
        io.im(13, t623);
        // complex block of 3, multiplier 2
        const V t624 = t550 + t537;
        // complex block of 3, multiplier 2
        const V t625 = t574 + t543;
        // complex block of 2
        const V t626 = t624 + t625;
        io.re(36, t626);
        const V t627 = t624 - t625;
        io.re(15, t627);
        // complex block of 3, multiplier 2
        const V t628 = t556 + t540;
        // complex block of 3, multiplier 2
        const V t629 = t580 + t546;
        // complex block of 2
        const V t630 = t628 + t629;
        io.im(36, t630);
        const V t631 = t628 - t629;
        io.im(15, t631);
        // complex block of 3, multiplier 2
        const V t632 = t537 - t552;
        const V t633 = t632 + t559;
        const V t634 = t632 - t559;
        // complex block of 3, multiplier 2
        const V t635 = t543 - t576;
        const V t636 = t635 + t583;
        const V t637 = t635 - t583;
        // complex block of 2
        const V t638 = t634 + t637;
        io.re(8, t638);
        const V t639 = t634 - t637;
        io.re(29, t639);
        // complex block of 2
        const V t640 = t633 + t636;
        io.re(22, t640);
        const V t641 = t633 - t636;
        io.re(1, t641);
        // complex block of 3, multiplier 2
        const V t642 = t540 - t558;
        const V t643 = t642 - t553;
        const V t644 = t642 + t553;
        // complex block of 3, multiplier 2
        const V t645 = t546 - t582;
        const V t646 = t645 - t577;
        const V t647 = t645 + t577;
        // complex block of 2
        const V t648 = t644 + t647;
        io.im(8, t648);
        const V t649 = t644 - t647;
        io.im(29, t649);
        // complex block of 2
        const V t650 = t643 + t646;
        io.im(22, t650);
        const V t651 = t643 - t646;
        io.im(1, t651);
        // complex block of 7, multiplier 6
        const V t652 = t26 + t27;
        const V t653 = t652 + t68;
        const V t654 = t652 - t68;
        const V t655 = t64 + t65;
        const V t656 = t655 - t30;
        const V t657 = t655 + t30;
        // complex block of 7, multiplier 6
        const V t658 = t270 + t271;
        const V t659 = t658 + t312;
        const V t660 = t658 - t312;
        const V t661 = t308 + t309;
        const V t662 = t661 - t274;
        const V t663 = t661 + t274;
        // complex block of 7, multiplier 6
        const V t664 = t191 + t236;
        // complex block of 7, multiplier 6
        const V t665 = t351 + t396;
        // complex block of 3, multiplier 2
        const V t666 = t664 + t665;
        const V t667 = t664 - t665;
        const V t668 = c[6] * t666;
        const V t669 = c[7] * t667;
        // complex block of 7, multiplier 6
        const V t670 = t233 - t194;
        // complex block of 7, multiplier 6
        const V t671 = t393 - t354;
        // complex block of 3, multiplier 2
        const V t672 = t670 + t671;
        const V t673 = t670 - t671;
        const V t674 = c[6] * t672;
        const V t675 = c[7] * t673;
        // complex block of 7, multiplier 6
        const V t676 = t191 - t236;
        // complex block of 7, multiplier 6
        const V t677 = t351 - t396;
        // complex block of 3, multiplier 2
        const V t678 = t676 + t677;
        const V t679 = t676 - t677;
        const V t680 = c[6] * t678;
        const V t681 = c[7] * t679;
        // complex block of 7, multiplier 6
        const V t682 = t233 + t194;
        // complex block of 7, multiplier 6
        const V t683 = t393 + t354;
        // complex block of 3, multiplier 2
        const V t684 = t682 + t683;
        const V t685 = t682 - t683;
        const V t686 = c[6] * t684;
        const V t687 = c[7] * t685;
        // complex block of 7, multiplier 6
        const V t688 = t435 + t480;
        // complex block of 7, multiplier 6
        const V t689 = t107 + t152;
        // complex block of 3, multiplier 2
        const V t690 = t688 + t689;
        const V t691 = t688 - t689;
        const V t692 = c[6] * t690;
        const V t693 = c[7] * t691;
        // complex block of 7, multiplier 6
        const V t694 = t477 - t438;
        // complex block of 7, multiplier 6
        const V t695 = t149 - t110;
        // complex block of 3, multiplier 2
        const V t696 = t694 + t695;
        const V t697 = t694 - t695;
        const V t698 = c[6] * t696;
        const V t699 = c[7] * t697;
        // complex block of 7, multiplier 6
        const V t700 = t435 - t480;
        // complex block of 7, multiplier 6
        const V t701 = t107 - t152;
        // complex block of 3, multiplier 2
        const V t702 = t700 + t701;
        const V t703 = t700 - t701;
        const V t704 = c[6] * t702;
        const V t705 = c[7] * t703;
        // complex block of 7, multiplier 6
        const V t706 = t477 + t438;
        // complex block of 7, multiplier 6
        const V t707 = t149 + t110;
        // complex block of 3, multiplier 2
        const V t708 = t706 + t707;
        const V t709 = t706 - t707;
        const V t710 = c[6] * t708;
        const V t711 = c[7] * t709;
        // complex block of 3, multiplier 2
        const V t712 = t678 + t654;
        // complex block of 3, multiplier 2
        const V t713 = t702 + t660;
        // complex block of 2
        const V t714 = t712 + t713;
        io.re(12, t714);
        const V t715 = t712 - t713;
        io.re(33, t715);
        // complex block of 3, multiplier 2
        const V t716 = t684 + t657;
        // complex block of 3, multiplier 2
        const V t717 = t708 + t663;
        // complex block of 2
        const V t718 = t716 + t717;
        io.im(12, t718);
        const V t719 = t716 - t717;
        io.im(33, t719);
        // complex block of 3, multiplier 2
        const V t720 = t654 - t680;
        const V t721 = t720 + t687;
        const V t722 = t720 - t687;
        // complex block of 3, multiplier 2
        const V t723 = t660 - t704;
        const V t724 = t723 + t711;
        const V t725 = t723 - t711;
        // complex block of 2
        const V t726 = t722 + t725;
        io.re(26, t726);
        const V t727 = t722 - t725;
        io.re(5, t727);
        // complex block of 2
        const V t728 = t721 + t724;
        io.re(40, t728);
        const V t729 = t721 - t724;
        io.re(19, t729);
        // complex block of 3, multiplier 2
        const V t730 = t657 - t686;
        const V t731 = t730 - t681;
        const V t732 = t730 + t681;
        // complex block of 3, multiplier 2
        const V t733 = t663 - t710;
        const V t734 = t733 - t705;
        const V t735 = t733 + t705;
        // complex block of 2
        const V t736 = t732 + t735;
        io.im(26, t736);
        const V t737 = t732 - t735;
        io.im(5, t737);
        // complex block of 2
        const V t738 = t731 + t734;
        io.im(40, t738);
        const V t739 = t731 - t734;
        io.im(19, t739);
        // complex block of 3, multiplier 2
        const V t740 = t666 + t653;
        // complex block of 3, multiplier 2
        const V t741 = t690 + t659;
        // complex block of 2
        const V t742 = t740 + t741;
        io.re(30, t742);
        const V t743 = t740 - t741;
        io.re(9, t743);
        // complex block of 3, multiplier 2
        const V t744 = t672 + t656;
        // complex block of 3, multiplier 2
        const V t745 = t696 + t662;
        // complex block of 2
        const V t746 = t744 + t745;
        io.im(30, t746);
        const V t747 = t744 - t745;
        io.im(9, t747);
        // complex block of 3, multiplier 2
        const V t748 = t653 - t668;
        const V t749 = t748 + t675;
        const V t750 = t748 - t675;
        // complex block of 3, multiplier 2
        const V t751 = t659 - t692;
        const V t752 = t751 + t699;
        const V t753 = t751 - t699;
        // complex block of 2
        const V t754 = t750 + t753;
        io.re(2, t754);
        const V t755 = t750 - t753;
        io.re(23, t755);
        // complex block of 2
        const V t756 = t749 + t752;
        io.re(16, t756);
        const V t757 = t749 - t752;
        io.re(37, t757);
        // complex block of 3, multiplier 2
        const V t758 = t656 - t674;
        const V t759 = t758 - t669;
        const V t760 = t758 + t669;
        // complex block of 3, multiplier 2
        const V t761 = t662 - t698;
        const V t762 = t761 - t693;
        const V t763 = t761 + t693;
        // complex block of 2
        const V t764 = t760 + t763;
        io.im(2, t764);
        const V t765 = t760 - t763;
        io.im(23, t765);
        // complex block of 2
        const V t766 = t759 + t762;
        io.im(16, t766);
        const V t767 = t759 - t762;
        io.im(37, t767);
        // complex block of 7, multiplier 6
        const V t768 = t33 - t34;
        const V t769 = t768 + t75;
        const V t770 = t768 - t75;
        const V t771 = t71 - t72;
        const V t772 = t771 - t37;
        const V t773 = t771 + t37;
        // complex block of 7, multiplier 6
        const V t774 = t277 - t278;
        const V t775 = t774 + t319;
        const V t776 = t774 - t319;
        const V t777 = t315 - t316;
        const V t778 = t777 - t281;
        const V t779 = t777 + t281;
        // complex block of 7, multiplier 6
        const V t780 = t198 + t243;
        // complex block of 7, multiplier 6
        const V t781 = t358 + t403;
        // complex block of 3, multiplier 2
        const V t782 = t780 + t781;
        const V t783 = t780 - t781;
        const V t784 = c[6] * t782;
        const V t785 = c[7] * t783;
        // complex block of 7, multiplier 6
        const V t786 = t240 - t201;
        // complex block of 7, multiplier 6
        const V t787 = t400 - t361;
        // complex block of 3, multiplier 2
        const V t788 = t786 + t787;
        const V t789 = t786 - t787;
        const V t790 = c[6] * t788;
        const V t791 = c[7] * t789;
        // complex block of 7, multiplier 6
        const V t792 = t198 - t243;
        // complex block of 7, multiplier 6
        const V t793 = t358 - t403;
        // complex block of 3, multiplier 2
        const V t794 = t792 + t793;
        const V t795 = t792 - t793;
        const V t796 = c[6] * t794;
        const V t797 = c[7] * t795;
        // complex block of 7, multiplier 6
        const V t798 = t240 + t201;
        // complex block of 7, multiplier 6
        const V t799 = t400 + t361;
        // complex block of 3, multiplier 2
        const V t800 = t798 + t799;
        const V t801 = t798 - t799;
        const V t802 = c[6] * t800;
        const V t803 = c[7] * t801;
        // complex block of 7, multiplier 6
        const V t804 = t442 + t487;
        // complex block of 7, multiplier 6
        const V t805 = t114 + t159;
        // complex block of 3, multiplier 2
        const V t806 = t804 + t805;
        const V t807 = t804 - t805;
        const V t808 = c[6] * t806;
        const V t809 = c[7] * t807;
        // complex block of 7, multiplier 6
        const V t810 = t484 - t445;
        // complex block of 7, multiplier 6
        const V t811 = t156 - t117;
        // complex block of 3, multiplier 2
        const V t812 = t810 + t811;
        const V t813 = t810 - t811;
        const V t814 = c[6] * t812;
        const V t815 = c[7] * t813;
        // complex block of 7, multiplier 6
        const V t816 = t442 - t487;
        // complex block of 7, multiplier 6
        const V t817 = t114 - t159;
        // complex block of 3, multiplier 2
        const V t818 = t816 + t817;
        const V t819 = t816 - t817;
        const V t820 = c[6] * t818;
        const V t821 = c[7] * t819;
        // complex block of 7, multiplier 6
        const V t822 = t484 + t445;
        // complex block of 7, multiplier 6
        const V t823 = t156 + t117;
        // complex block of 3, multiplier 2
        const V t824 = t822 + t823;
        const V t825 = t822 - t823;
        const V t826 = c[6] * t824;
        const V t827 = c[7] * t825;
        // complex block of 3, multiplier 2
        const V t828 = t794 + t770;
        // complex block of 3, multiplier 2
        const V t829 = t818 + t776;
        // complex block of 2
        const V t830 = t828 + t829;
        io.re(18, t830);
        const V t831 = t828 - t829;
        io.re(39, t831);
        // complex block of 3, multiplier 2
        const V t832 = t800 + t773;
        // complex block of 3, multiplier 2
        const V t833 = t824 + t779;
        // complex block of 2
        const V t834 = t832 + t833;
        io.im(18, t834);
        const V t835 = t832 - t833;
        io.im(39, t835);
        // complex block of 3, multiplier 2
        const V t836 = t770 - t796;
        const V t837 = t836 + t803;
        const V t838 = t836 - t803;
        // complex block of 3, multiplier 2
        const V t839 = t776 - t820;
        const V t840 = t839 + t827;
        const V t841 = t839 - t827;
        // complex block of 2
        const V t842 = t838 + t841;
        io.re(32, t842);
        const V t843 = t838 - t841;
        io.re(11, t843);
        // complex block of 2
        const V t844 = t837 + t840;
        io.re(4, t844);
        const V t845 = t837 - t840;
        io.re(25, t845);
        // complex block of 3, multiplier 2
        const V t846 = t773 - t802;
        const V t847 = t846 - t797;
        const V t848 = t846 + t797;
        // complex block of 3, multiplier 2
        const V t849 = t779 - t826;
        const V t850 = t849 - t821;
        const V t851 = t849 + t821;
        // complex block of 2
        const V t852 = t848 + t851;
        io.im(32, t852);
        const V t853 = t848 - t851;
        io.im(11, t853);
        // complex block of 2
        const V t854 = t847 + t850;
        io.im(4, t854);
        const V t855 = t847 - t850;
        io.im(25, t855);
        // complex block of 3, multiplier 2
        const V t856 = t782 + t769;
        // complex block of 3, multiplier 2
        const V t857 = t806 + t775;
        // complex block of 2
        const V t858 = t856 + t857;
        io.re(24, t858);
        const V t859 = t856 - t857;
        io.re(3, t859);
        // complex block of 3, multiplier 2
        const V t860 = t788 + t772;
        // complex block of 3, multiplier 2
        const V t861 = t812 + t778;
        // complex block of 2
        const V t862 = t860 + t861;
        io.im(24, t862);
        const V t863 = t860 - t861;
        io.im(3, t863);
        // complex block of 3, multiplier 2
        const V t864 = t769 - t784;
        const V t865 = t864 + t791;
        const V t866 = t864 - t791;
        // complex block of 3, multiplier 2
        const V t867 = t775 - t808;
        const V t868 = t867 + t815;
        const V t869 = t867 - t815;
        // complex block of 2
        const V t870 = t866 + t869;
        io.re(38, t870);
        const V t871 = t866 - t869;
        io.re(17, t871);
        // complex block of 2
        const V t872 = t865 + t868;
        io.re(10, t872);
        const V t873 = t865 - t868;
        io.re(31, t873);
        // complex block of 3, multiplier 2
        const V t874 = t772 - t790;
        const V t875 = t874 - t785;
        const V t876 = t874 + t785;
        // complex block of 3, multiplier 2
        const V t877 = t778 - t814;
        const V t878 = t877 - t809;
        const V t879 = t877 + t809;
        // complex block of 2
        const V t880 = t876 + t879;
        io.im(38, t880);
        const V t881 = t876 - t879;
        io.im(17, t881);
        // complex block of 2
        const V t882 = t875 + t878;
        io.im(10, t882);
        const V t883 = t875 - t878;
        io.im(31, t883);
    }
};

}  // namespace zulg
