// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 36.
// Complex DFT of 36 points, prime-factor, order 9, 4.
// 232 additions, 232 subtractions, 160 multiplications (232 with `scale`); 8 constants; 74 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<36> {
    static constexpr int steps = 696;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6427876096865394,  // c[2]: -sin 2 pi 8/9
        0.766044443118978,  // c[3]: cos 2 pi 8/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.984807753012208,  // c[6]: -sin 2 pi 7/9
        0.17364817766693036,  // c[7]: cos 2 pi 7/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3
        const V x12r = io.re(12);
        const V x24r = io.re(24);
        const V t0 = x12r + x24r;
        const V x12i = io.im(12);
        const V x24i = io.im(24);
        const V t1 = x12i + x24i;
        const V t2 = x12r - x24r;
        const V t3 = x12i - x24i;
        const V x0r = io.re(0);
        const V t4 = t0 + x0r;
        const V x0i = io.im(0);
        const V t5 = t1 + x0i;
        const V t6 = c[0] * t0;
        const V t7 = x0r - t6;
        const V t8 = c[0] * t1;
        const V t9 = x0i - t8;
        const V t10 = c[1] * t2;
        const V t11 = c[1] * t3;
        const V t12 = t7 + t11;
        const V t13 = t9 - t10;
        const V t14 = t7 - t11;
        const V t15 = t9 + t10;
        // complex block of 3
        const V x16r = io.re(16);
        const V x28r = io.re(28);
        const V t16 = x16r + x28r;
        const V x16i = io.im(16);
        const V x28i = io.im(28);
        const V t17 = x16i + x28i;
        const V t18 = x16r - x28r;
        const V t19 = x16i - x28i;
        const V x4r = io.re(4);
        const V t20 = t16 + x4r;
        const V x4i = io.im(4);
        const V t21 = t17 + x4i;
        const V t22 = c[0] * t16;
        const V t23 = x4r - t22;
        const V t24 = c[0] * t17;
        const V t25 = x4i - t24;
        const V t26 = c[1] * t18;
        const V t27 = c[1] * t19;
        const V t28 = t23 + t27;
        const V t29 = t25 - t26;
        const V t30 = t23 - t27;
        const V t31 = t25 + t26;
        // complex block of 3
        const V x20r = io.re(20);
        const V x32r = io.re(32);
        const V t32 = x20r + x32r;
        const V x20i = io.im(20);
        const V x32i = io.im(32);
        const V t33 = x20i + x32i;
        const V t34 = x20r - x32r;
        const V t35 = x20i - x32i;
        const V x8r = io.re(8);
        const V t36 = t32 + x8r;
        const V x8i = io.im(8);
        const V t37 = t33 + x8i;
        const V t38 = c[0] * t32;
        const V t39 = x8r - t38;
        const V t40 = c[0] * t33;
        const V t41 = x8i - t40;
        const V t42 = c[1] * t34;
        const V t43 = c[1] * t35;
        const V t44 = t39 + t43;
        const V t45 = t41 - t42;
        const V t46 = t39 - t43;
        const V t47 = t41 + t42;
        // complex block of 3
        const V t48 = t20 + t36;
        const V t49 = t21 + t37;
        const V t50 = t20 - t36;
        const V t51 = t21 - t37;
        const V t52 = t48 + t4;
        const V t53 = t49 + t5;
        const V t54 = c[0] * t48;
        const V t55 = t4 - t54;
        const V t56 = c[0] * t49;
        const V t57 = t5 - t56;
        const V t58 = c[1] * t50;
        const V t59 = c[1] * t51;
        const V t60 = t55 + t59;
        const V t61 = t57 - t58;
        const V t62 = t55 - t59;
        const V t63 = t57 + t58;
        // complex block of 9, multiplier 4
        const V t64 = c[4] * t29;
        const V t65 = c[5] * t28;
        const V t66 = t64 - t65;
        const V t67 = c[4] * t28;
        const V t68 = c[5] * t29;
        const V t69 = t68 + t67;
        const V t70 = c[2] * t45;
        const V t71 = c[3] * t44;
        const V t72 = t71 - t70;
        const V t73 = c[2] * t44;
        const V t74 = c[3] * t45;
        const V t75 = t74 + t73;
        // complex block of 3
        const V t76 = t66 + t72;
        const V t77 = t75 - t69;
        const V t78 = t66 - t72;
        const V t79 = t69 + t75;
        const V t80 = t76 + t12;
        const V t81 = t77 + t13;
        const V t82 = c[0] * t76;
        const V t83 = t12 - t82;
        const V t84 = c[0] * t77;
        const V t85 = t13 - t84;
        const V t86 = c[1] * t78;
        const V t87 = c[1] * t79;
        const V t88 = t83 - t87;
        const V t89 = t85 - t86;
        const V t90 = t83 + t87;
        const V t91 = t85 + t86;
        // complex block of 9, multiplier 4
        const V t92 = c[2] * t31;
        const V t93 = c[3] * t30;
        const V t94 = t93 - t92;
        const V t95 = c[2] * t30;
        const V t96 = c[3] * t31;
        const V t97 = t96 + t95;
        const V t98 = c[6] * t47;
        const V t99 = c[7] * t46;
        const V t100 = t99 - t98;
        const V t101 = c[6] * t46;
        const V t102 = c[7] * t47;
        const V t103 = t102 + t101;
        // complex block of 3
        const V t104 = t94 + t100;
        const V t105 = t97 + t103;
        const V t106 = t94 - t100;
        const V t107 = t97 - t103;
        const V t108 = t104 + t14;
        const V t109 = t105 + t15;
        const V t110 = c[0] * t104;
        const V t111 = t14 - t110;
        const V t112 = c[0] * t105;
        const V t113 = t15 - t112;
        const V t114 = c[1] * t106;
        const V t115 = c[1] * t107;
        const V t116 = t111 + t115;
        const V t117 = t113 - t114;
        const V t118 = t111 - t115;
        const V t119 = t113 + t114;
        // complex block of 3
        const V x21r = io.re(21);
        const V x33r = io.re(33);
        const V t120 = x21r + x33r;
        const V x21i = io.im(21);
        const V x33i = io.im(33);
        const V t121 = x21i + x33i;
        const V t122 = x21r - x33r;
        const V t123 = x21i - x33i;
        const V x9r = io.re(9);
        const V t124 = t120 + x9r;
        const V x9i = io.im(9);
        const V t125 = t121 + x9i;
        const V t126 = c[0] * t120;
        const V t127 = x9r - t126;
        const V t128 = c[0] * t121;
        const V t129 = x9i - t128;
        const V t130 = c[1] * t122;
        const V t131 = c[1] * t123;
        const V t132 = t127 + t131;
        const V t133 = t129 - t130;
        const V t134 = t127 - t131;
        const V t135 = t129 + t130;
        // complex block of 3
        const V x25r = io.re(25);
        const V x1r = io.re(1);
        const V t136 = x25r + x1r;
        const V x25i = io.im(25);
        const V x1i = io.im(1);
        const V t137 = x25i + x1i;
        const V t138 = x25r - x1r;
        const V t139 = x25i - x1i;
        const V x13r = io.re(13);
        const V t140 = t136 + x13r;
        const V x13i = io.im(13);
        const V t141 = t137 + x13i;
        const V t142 = c[0] * t136;
        const V t143 = x13r - t142;
        const V t144 = c[0] * t137;
        const V t145 = x13i - t144;
        const V t146 = c[1] * t138;
        const V t147 = c[1] * t139;
        const V t148 = t143 + t147;
        const V t149 = t145 - t146;
        const V t150 = t143 - t147;
        const V t151 = t145 + t146;
        // complex block of 3
        const V x29r = io.re(29);
        const V x5r = io.re(5);
        const V t152 = x29r + x5r;
        const V x29i = io.im(29);
        const V x5i = io.im(5);
        const V t153 = x29i + x5i;
        const V t154 = x29r - x5r;
        const V t155 = x29i - x5i;
        const V x17r = io.re(17);
        const V t156 = t152 + x17r;
        const V x17i = io.im(17);
        const V t157 = t153 + x17i;
        const V t158 = c[0] * t152;
        const V t159 = x17r - t158;
        const V t160 = c[0] * t153;
        const V t161 = x17i - t160;
        const V t162 = c[1] * t154;
        const V t163 = c[1] * t155;
        const V t164 = t159 + t163;
        const V t165 = t161 - t162;
        const V t166 = t159 - t163;
        const V t167 = t161 + t162;
        // complex block of 3
        const V t168 = t140 + t156;
        const V t169 = t141 + t157;
        const V t170 = t140 - t156;
        const V t171 = t141 - t157;
        const V t172 = t168 + t124;
        const V t173 = t169 + t125;
        const V t174 = c[0] * t168;
        const V t175 = t124 - t174;
        const V t176 = c[0] * t169;
        const V t177 = t125 - t176;
        const V t178 = c[1] * t170;
        const V t179 = c[1] * t171;
        const V t180 = t175 + t179;
        const V t181 = t177 - t178;
        const V t182 = t175 - t179;
        const V t183 = t177 + t178;
        // complex block of 9, multiplier 4
        const V t184 = c[4] * t149;
        const V t185 = c[5] * t148;
        const V t186 = t184 - t185;
        const V t187 = c[4] * t148;
        const V t188 = c[5] * t149;
        const V t189 = t188 + t187;
        const V t190 = c[2] * t165;
        const V t191 = c[3] * t164;
        const V t192 = t191 - t190;
        const V t193 = c[2] * t164;
        const V t194 = c[3] * t165;
        const V t195 = t194 + t193;
        // complex block of 3
        const V t196 = t186 + t192;
        const V t197 = t195 - t189;
        const V t198 = t186 - t192;
        const V t199 = t189 + t195;
        const V t200 = t196 + t132;
        const V t201 = t197 + t133;
        const V t202 = c[0] * t196;
        const V t203 = t132 - t202;
        const V t204 = c[0] * t197;
        const V t205 = t133 - t204;
        const V t206 = c[1] * t198;
        const V t207 = c[1] * t199;
        const V t208 = t203 - t207;
        const V t209 = t205 - t206;
        const V t210 = t203 + t207;
        const V t211 = t205 + t206;
        // complex block of 9, multiplier 4
        const V t212 = c[2] * t151;
        const V t213 = c[3] * t150;
        const V t214 = t213 - t212;
        const V t215 = c[2] * t150;
        const V t216 = c[3] * t151;
        const V t217 = t216 + t215;
        const V t218 = c[6] * t167;
        const V t219 = c[7] * t166;
        const V t220 = t219 - t218;
        const V t221 = c[6] * t166;
        const V t222 = c[7] * t167;
        const V t223 = t222 + t221;
        // complex block of 3
        const V t224 = t214 + t220;
        const V t225 = t217 + t223;
        const V t226 = t214 - t220;
        const V t227 = t217 - t223;
        const V t228 = t224 + t134;
        const V t229 = t225 + t135;
        const V t230 = c[0] * t224;
        const V t231 = t134 - t230;
        const V t232 = c[0] * t225;
        const V t233 = t135 - t232;
        const V t234 = c[1] * t226;
        const V t235 = c[1] * t227;
        const V t236 = t231 + t235;
        const V t237 = t233 - t234;
        const V t238 = t231 - t235;
        const V t239 = t233 + t234;
        // complex block of 3
        const V x30r = io.re(30);
        const V x6r = io.re(6);
        const V t240 = x30r + x6r;
        const V x30i = io.im(30);
        const V x6i = io.im(6);
        const V t241 = x30i + x6i;
        const V t242 = x30r - x6r;
        const V t243 = x30i - x6i;
        const V x18r = io.re(18);
        const V t244 = t240 + x18r;
        const V x18i = io.im(18);
        const V t245 = t241 + x18i;
        const V t246 = c[0] * t240;
        const V t247 = x18r - t246;
        const V t248 = c[0] * t241;
        const V t249 = x18i - t248;
        const V t250 = c[1] * t242;
        const V t251 = c[1] * t243;
        const V t252 = t247 + t251;
        const V t253 = t249 - t250;
        const V t254 = t247 - t251;
        const V t255 = t249 + t250;
        // complex block of 3
        const V x34r = io.re(34);
        const V x10r = io.re(10);
        const V t256 = x34r + x10r;
        const V x34i = io.im(34);
        const V x10i = io.im(10);
        const V t257 = x34i + x10i;
        const V t258 = x34r - x10r;
        const V t259 = x34i - x10i;
        const V x22r = io.re(22);
        const V t260 = t256 + x22r;
        const V x22i = io.im(22);
        const V t261 = t257 + x22i;
        const V t262 = c[0] * t256;
        const V t263 = x22r - t262;
        const V t264 = c[0] * t257;
        const V t265 = x22i - t264;
        const V t266 = c[1] * t258;
        const V t267 = c[1] * t259;
        const V t268 = t263 + t267;
        const V t269 = t265 - t266;
        const V t270 = t263 - t267;
        const V t271 = t265 + t266;
        // complex block of 3
        const V x2r = io.re(2);
        const V x14r = io.re(14);
        const V t272 = x2r + x14r;
        const V x2i = io.im(2);
        const V x14i = io.im(14);
        const V t273 = x2i + x14i;
        const V t274 = x2r - x14r;
        const V t275 = x2i - x14i;
        const V x26r = io.re(26);
        const V t276 = t272 + x26r;
        const V x26i = io.im(26);
        const V t277 = t273 + x26i;
        const V t278 = c[0] * t272;
        const V t279 = x26r - t278;
        const V t280 = c[0] * t273;
        const V t281 = x26i - t280;
        const V t282 = c[1] * t274;
        const V t283 = c[1] * t275;
        const V t284 = t279 + t283;
        const V t285 = t281 - t282;
        const V t286 = t279 - t283;
        const V t287 = t281 + t282;
        // complex block of 3
        const V t288 = t260 + t276;
        const V t289 = t261 + t277;
        const V t290 = t260 - t276;
        const V t291 = t261 - t277;
        const V t292 = t288 + t244;
        const V t293 = t289 + t245;
        const V t294 = c[0] * t288;
        const V t295 = t244 - t294;
        const V t296 = c[0] * t289;
        const V t297 = t245 - t296;
        const V t298 = c[1] * t290;
        const V t299 = c[1] * t291;
        const V t300 = t295 + t299;
        const V t301 = t297 - t298;
        const V t302 = t295 - t299;
        const V t303 = t297 + t298;
        // complex block of 9, multiplier 4
        const V t304 = c[4] * t269;
        const V t305 = c[5] * t268;
        const V t306 = t304 - t305;
        const V t307 = c[4] * t268;
        const V t308 = c[5] * t269;
        const V t309 = t308 + t307;
        const V t310 = c[2] * t285;
        const V t311 = c[3] * t284;
        const V t312 = t311 - t310;
        const V t313 = c[2] * t284;
        const V t314 = c[3] * t285;
        const V t315 = t314 + t313;
        // complex block of 3
        const V t316 = t306 + t312;
        const V t317 = t315 - t309;
        const V t318 = t306 - t312;
        const V t319 = t309 + t315;
        const V t320 = t316 + t252;
        const V t321 = t317 + t253;
        const V t322 = c[0] * t316;
        const V t323 = t252 - t322;
        const V t324 = c[0] * t317;
        const V t325 = t253 - t324;
        const V t326 = c[1] * t318;
        const V t327 = c[1] * t319;
        const V t328 = t323 - t327;
        const V t329 = t325 - t326;
        const V t330 = t323 + t327;
        const V t331 = t325 + t326;
        // complex block of 9, multiplier 4
        const V t332 = c[2] * t271;
        const V t333 = c[3] * t270;
        const V t334 = t333 - t332;
        const V t335 = c[2] * t270;
        const V t336 = c[3] * t271;
        const V t337 = t336 + t335;
        const V t338 = c[6] * t287;
        const V t339 = c[7] * t286;
        const V t340 = t339 - t338;
        const V t341 = c[6] * t286;
        const V t342 = c[7] * t287;
        const V t343 = t342 + t341;
        // complex block of 3
        const V t344 = t334 + t340;
        const V t345 = t337 + t343;
        const V t346 = t334 - t340;
        const V t347 = t337 - t343;
        const V t348 = t344 + t254;
        const V t349 = t345 + t255;
        const V t350 = c[0] * t344;
        const V t351 = t254 - t350;
        const V t352 = c[0] * t345;
        const V t353 = t255 - t352;
        const V t354 = c[1] * t346;
        const V t355 = c[1] * t347;
        const V t356 = t351 + t355;
        const V t357 = t353 - t354;
        const V t358 = t351 - t355;
        const V t359 = t353 + t354;
        // complex block of 3
        const V x3r = io.re(3);
        const V x15r = io.re(15);
        const V t360 = x3r + x15r;
        const V x3i = io.im(3);
        const V x15i = io.im(15);
        const V t361 = x3i + x15i;
        const V t362 = x3r - x15r;
        const V t363 = x3i - x15i;
        const V x27r = io.re(27);
        const V t364 = t360 + x27r;
        const V x27i = io.im(27);
        const V t365 = t361 + x27i;
        const V t366 = c[0] * t360;
        const V t367 = x27r - t366;
        const V t368 = c[0] * t361;
        const V t369 = x27i - t368;
        const V t370 = c[1] * t362;
        const V t371 = c[1] * t363;
        const V t372 = t367 + t371;
        const V t373 = t369 - t370;
        const V t374 = t367 - t371;
        const V t375 = t369 + t370;
        // complex block of 3
        const V x7r = io.re(7);
        const V x19r = io.re(19);
        const V t376 = x7r + x19r;
        const V x7i = io.im(7);
        const V x19i = io.im(19);
        const V t377 = x7i + x19i;
        const V t378 = x7r - x19r;
        const V t379 = x7i - x19i;
        const V x31r = io.re(31);
        const V t380 = t376 + x31r;
        const V x31i = io.im(31);
        const V t381 = t377 + x31i;
        const V t382 = c[0] * t376;
        const V t383 = x31r - t382;
        const V t384 = c[0] * t377;
        const V t385 = x31i - t384;
        const V t386 = c[1] * t378;
        const V t387 = c[1] * t379;
        const V t388 = t383 + t387;
        const V t389 = t385 - t386;
        const V t390 = t383 - t387;
        const V t391 = t385 + t386;
        // complex block of 3
        const V x11r = io.re(11);
        const V x23r = io.re(23);
        const V t392 = x11r + x23r;
        const V x11i = io.im(11);
        const V x23i = io.im(23);
        const V t393 = x11i + x23i;
        const V t394 = x11r - x23r;
        const V t395 = x11i - x23i;
        const V x35r = io.re(35);
        const V t396 = t392 + x35r;
        const V x35i = io.im(35);
        const V t397 = t393 + x35i;
        const V t398 = c[0] * t392;
        const V t399 = x35r - t398;
        const V t400 = c[0] * t393;
        const V t401 = x35i - t400;
        const V t402 = c[1] * t394;
        const V t403 = c[1] * t395;
        const V t404 = t399 + t403;
        const V t405 = t401 - t402;
        const V t406 = t399 - t403;
        const V t407 = t401 + t402;
        // complex block of 3
        const V t408 = t380 + t396;
        const V t409 = t381 + t397;
        const V t410 = t380 - t396;
        const V t411 = t381 - t397;
        const V t412 = t408 + t364;
        const V t413 = t409 + t365;
        const V t414 = c[0] * t408;
        const V t415 = t364 - t414;
        const V t416 = c[0] * t409;
        const V t417 = t365 - t416;
        const V t418 = c[1] * t410;
        const V t419 = c[1] * t411;
        const V t420 = t415 + t419;
        const V t421 = t417 - t418;
        const V t422 = t415 - t419;
        const V t423 = t417 + t418;
        // complex block of 9, multiplier 4
        const V t424 = c[4] * t389;
        const V t425 = c[5] * t388;
        const V t426 = t424 - t425;
        const V t427 = c[4] * t388;
        const V t428 = c[5] * t389;
        const V t429 = t428 + t427;
        const V t430 = c[2] * t405;
        const V t431 = c[3] * t404;
        const V t432 = t431 - t430;
        const V t433 = c[2] * t404;
        const V t434 = c[3] * t405;
        const V t435 = t434 + t433;
        // complex block of 3
        const V t436 = t426 + t432;
        const V t437 = t435 - t429;
        const V t438 = t426 - t432;
        const V t439 = t429 + t435;
        const V t440 = t436 + t372;
        const V t441 = t437 + t373;
        const V t442 = c[0] * t436;
        const V t443 = t372 - t442;
        const V t444 = c[0] * t437;
        const V t445 = t373 - t444;
        const V t446 = c[1] * t438;
        const V t447 = c[1] * t439;
        const V t448 = t443 - t447;
        const V t449 = t445 - t446;
        const V t450 = t443 + t447;
        const V t451 = t445 + t446;
        // complex block of 9, multiplier 4
        const V t452 = c[2] * t391;
        const V t453 = c[3] * t390;
        const V t454 = t453 - t452;
        const V t455 = c[2] * t390;
        const V t456 = c[3] * t391;
        const V t457 = t456 + t455;
        const V t458 = c[6] * t407;
        const V t459 = c[7] * t406;
        const V t460 = t459 - t458;
        const V t461 = c[6] * t406;
        const V t462 = c[7] * t407;
        const V t463 = t462 + t461;
        // complex block of 3
        const V t464 = t454 + t460;
        const V t465 = t457 + t463;
        const V t466 = t454 - t460;
        const V t467 = t457 - t463;
        const V t468 = t464 + t374;
        const V t469 = t465 + t375;
        const V t470 = c[0] * t464;
        const V t471 = t374 - t470;
        const V t472 = c[0] * t465;
        const V t473 = t375 - t472;
        const V t474 = c[1] * t466;
        const V t475 = c[1] * t467;
        const V t476 = t471 + t475;
        const V t477 = t473 - t474;
        const V t478 = t471 - t475;
        const V t479 = t473 + t474;
        // complex block of 2
        const V t480 = t52 + t292;
        const V t481 = t53 + t293;
        const V t482 = t52 - t292;
        const V t483 = t53 - t293;
        // complex block of 2
        const V t484 = t172 + t412;
        const V t485 = t173 + t413;
        const V t486 = t172 - t412;
        const V t487 = t173 - t413;
        // complex block of 2
        const V t488 = t480 + t484;
        io.re(0, t488);
        const V t489 = t481 + t485;
        io.im(0, t489);
        const V t490 = t480 - t484;
        io.re(18, t490);
        const V t491 = t481 - t485;
        io.im(18, t491);
        // complex block of 2
        const V t492 = t482 + t487;
        io.re(9, t492);
        const V t493 = t483 - t486;
        io.im(9, t493);
        const V t494 = t482 - t487;
        io.re(27, t494);
        const V t495 = t483 + t486;
        io.im(27, t495);
        // complex block of 2
        const V t496 = t80 + t320;
        const V t497 = t81 + t321;
        const V t498 = t80 - t320;
        const V t499 = t81 - t321;
        // complex block of 2
        const V t500 = t200 + t440;
        const V t501 = t201 + t441;
        const V t502 = t200 - t440;
        const V t503 = t201 - t441;
        // complex block of 2
        const V t504 = t496 + t500;
        io.re(4, t504);
        const V t505 = t497 + t501;
        io.im(4, t505);
        const V t506 = t496 - t500;
        io.re(22, t506);
        const V t507 = t497 - t501;
        io.im(22, t507);
        // complex block of 2
        const V t508 = t498 + t503;
        io.re(13, t508);
        const V t509 = t499 - t502;
        io.im(13, t509);
        const V t510 = t498 - t503;
        io.re(31, t510);
        const V t511 = t499 + t502;
        io.im(31, t511);
        // complex block of 2
        const V t512 = t108 + t348;
        const V t513 = t109 + t349;
        const V t514 = t108 - t348;
        const V t515 = t109 - t349;
        // complex block of 2
        const V t516 = t228 + t468;
        const V t517 = t229 + t469;
        const V t518 = t228 - t468;
        const V t519 = t229 - t469;
        // complex block of 2
        const V t520 = t512 + t516;
        io.re(8, t520);
        const V t521 = t513 + t517;
        io.im(8, t521);
        const V t522 = t512 - t516;
        io.re(26, t522);
        const V t523 = t513 - t517;
        io.im(26, t523);
        // complex block of 2
        const V t524 = t514 + t519;
        io.re(17, t524);
        const V t525 = t515 - t518;
        io.im(17, t525);
        const V t526 = t514 - t519;
        io.re(35, t526);
        const V t527 = t515 + t518;
        io.im(35, t527);
        // complex block of 2
        const V t528 = t60 + t300;
        const V t529 = t61 + t301;
        const V t530 = t60 - t300;
        const V t531 = t61 - t301;
        // complex block of 2
        const V t532 = t180 + t420;
        const V t533 = t181 + t421;
        const V t534 = t180 - t420;
        const V t535 = t181 - t421;
        // complex block of 2
        const V t536 = t528 + t532;
        io.re(12, t536);
        const V t537 = t529 + t533;
        io.im(12, t537);
        const V t538 = t528 - t532;
        io.re(30, t538);
        const V t539 = t529 - t533;
        io.im(30, t539);
        // complex block of 2
        const V t540 = t530 + t535;
        io.re(21, t540);
        const V t541 = t531 - t534;
        io.im(21, t541);
        const V t542 = t530 - t535;
        io.re(3, t542);
        const V t543 = t531 + t534;
        io.im(3, t543);
        // complex block of 2
        const V t544 = t88 + t328;
        const V t545 = t89 + t329;
        const V t546 = t88 - t328;
        const V t547 = t89 - t329;
        // complex block of 2
        const V t548 = t208 + t448;
        const V t549 = t209 + t449;
        const V t550 = t208 - t448;
        const V t551 = t209 - t449;
        // complex block of 2
        const V t552 = t544 + t548;
        io.re(16, t552);
        const V t553 = t545 + t549;
        io.im(16, t553);
        const V t554 = t544 - t548;
        io.re(34, t554);
        const V t555 = t545 - t549;
        io.im(34, t555);
        // complex block of 2
        const V t556 = t546 + t551;
        io.re(25, t556);
        const V t557 = t547 - t550;
        io.im(25, t557);
        const V t558 = t546 - t551;
        io.re(7, t558);
        const V t559 = t547 + t550;
        io.im(7, t559);
        // complex block of 2
        const V t560 = t116 + t356;
        const V t561 = t117 + t357;
        const V t562 = t116 - t356;
        const V t563 = t117 - t357;
        // complex block of 2
        const V t564 = t236 + t476;
        const V t565 = t237 + t477;
        const V t566 = t236 - t476;
        const V t567 = t237 - t477;
        // complex block of 2
        const V t568 = t560 + t564;
        io.re(20, t568);
        const V t569 = t561 + t565;
        io.im(20, t569);
        const V t570 = t560 - t564;
        io.re(2, t570);
        const V t571 = t561 - t565;
        io.im(2, t571);
        // complex block of 2
        const V t572 = t562 + t567;
        io.re(29, t572);
        const V t573 = t563 - t566;
        io.im(29, t573);
        const V t574 = t562 - t567;
        io.re(11, t574);
        const V t575 = t563 + t566;
        io.im(11, t575);
        // complex block of 2
        const V t576 = t62 + t302;
        const V t577 = t63 + t303;
        const V t578 = t62 - t302;
        const V t579 = t63 - t303;
        // complex block of 2
        const V t580 = t182 + t422;
        const V t581 = t183 + t423;
        const V t582 = t182 - t422;
        const V t583 = t183 - t423;
        // complex block of 2
        const V t584 = t576 + t580;
        io.re(24, t584);
        const V t585 = t577 + t581;
        io.im(24, t585);
        const V t586 = t576 - t580;
        io.re(6, t586);
        const V t587 = t577 - t581;
        io.im(6, t587);
        // complex block of 2
        const V t588 = t578 + t583;
        io.re(33, t588);
        const V t589 = t579 - t582;
        io.im(33, t589);
        const V t590 = t578 - t583;
        io.re(15, t590);
        const V t591 = t579 + t582;
        io.im(15, t591);
        // complex block of 2
        const V t592 = t90 + t330;
        const V t593 = t91 + t331;
        const V t594 = t90 - t330;
        const V t595 = t91 - t331;
        // complex block of 2
        const V t596 = t210 + t450;
        const V t597 = t211 + t451;
        const V t598 = t210 - t450;
        const V t599 = t211 - t451;
        // complex block of 2
        const V t600 = t592 + t596;
        io.re(28, t600);
        const V t601 = t593 + t597;
        io.im(28, t601);
        const V t602 = t592 - t596;
        io.re(10, t602);
        const V t603 = t593 - t597;
        io.im(10, t603);
        // complex block of 2
        const V t604 = t594 + t599;
        io.re(1, t604);
        const V t605 = t595 - t598;
        io.im(1, t605);
        const V t606 = t594 - t599;
        io.re(19, t606);
        const V t607 = t595 + t598;
        io.im(19, t607);
        // complex block of 2
        const V t608 = t118 + t358;
        const V t609 = t119 + t359;
        const V t610 = t118 - t358;
        const V t611 = t119 - t359;
        // complex block of 2
        const V t612 = t238 + t478;
        const V t613 = t239 + t479;
        const V t614 = t238 - t478;
        const V t615 = t239 - t479;
        // complex block of 2
        const V t616 = t608 + t612;
        io.re(32, t616);
        const V t617 = t609 + t613;
        io.im(32, t617);
        const V t618 = t608 - t612;
        io.re(14, t618);
        const V t619 = t609 - t613;
        io.im(14, t619);
        // complex block of 2
        const V t620 = t610 + t615;
        io.re(5, t620);
        const V t621 = t611 - t614;
        io.im(5, t621);
        const V t622 = t610 - t615;
        io.re(23, t622);
        const V t623 = t611 + t614;
        io.im(23, t623);
    }
};

}  // namespace zulg
