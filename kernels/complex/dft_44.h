// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 44.
// Complex DFT of 44 points, prime-factor, order 11, 4.
// 424 additions, 376 subtractions, 400 multiplications (488 with `scale`); 14 constants; 92 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<44> {
    static constexpr int steps = 1288;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5450828424811972,  // c[4]: -P[1] of 11
        0.3780009190896476,  // c[5]: Q[1] of 11
        0.6355539395974166,  // c[6]: -Q[2] of 11
        0.18992416871531467,  // c[7]: -P[2] of 11
        0.6617220446385197,  // c[8]: -P[3] of 11
        0.046086176229070706,  // c[9]: Q[3] of 11
        0.5539145271232301,  // c[10]: Q[4] of 11
        0.3649365652299704,  // c[11]: -P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 5, multiplier 2
        const V x16r = io.re(16);
        const V x12r = io.re(12);
        const V t0 = x16r + x12r;
        const V t1 = x16r - x12r;
        const V x36r = io.re(36);
        const V x20r = io.re(20);
        const V t2 = x36r + x20r;
        const V t3 = x36r - x20r;
        const V t4 = t0 + t2;
        const V x4r = io.re(4);
        const V t5 = t4 + x4r;
        const V t6 = c[0] * t0;
        const V t7 = x4r - t6;
        const V t8 = c[1] * t2;
        const V t9 = t7 + t8;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t10 + t11;
        const V t13 = c[1] * t0;
        const V t14 = c[0] * t2;
        const V t15 = t13 - t14;
        const V t16 = t15 + x4r;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t17 - t18;
        // real block of 5, multiplier 2
        const V x28r = io.re(28);
        const V x32r = io.re(32);
        const V t20 = x28r + x32r;
        const V t21 = x28r - x32r;
        const V x8r = io.re(8);
        const V x24r = io.re(24);
        const V t22 = x8r + x24r;
        const V t23 = x8r - x24r;
        const V t24 = t20 + t22;
        const V x40r = io.re(40);
        const V t25 = t24 + x40r;
        const V t26 = c[0] * t20;
        const V t27 = x40r - t26;
        const V t28 = c[1] * t22;
        const V t29 = t27 + t28;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t30 + t31;
        const V t33 = c[1] * t20;
        const V t34 = c[0] * t22;
        const V t35 = t33 - t34;
        const V t36 = t35 + x40r;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t37 - t38;
        // real block of 2
        const V t40 = t5 + t25;
        const V t41 = t5 - t25;
        // complex block of 2
        const V t42 = t9 + t29;
        const V t43 = t12 + t32;
        const V t44 = t9 - t29;
        const V t45 = t32 - t12;
        // complex block of 2
        const V t46 = t16 + t36;
        const V t47 = t19 + t39;
        const V t48 = t16 - t36;
        const V t49 = t19 - t39;
        // real block of 5, multiplier 2
        const V x16i = io.im(16);
        const V x12i = io.im(12);
        const V t50 = x16i + x12i;
        const V t51 = x16i - x12i;
        const V x36i = io.im(36);
        const V x20i = io.im(20);
        const V t52 = x36i + x20i;
        const V t53 = x36i - x20i;
        const V t54 = t50 + t52;
        const V x4i = io.im(4);
        const V t55 = t54 + x4i;
        const V t56 = c[0] * t50;
        const V t57 = x4i - t56;
        const V t58 = c[1] * t52;
        const V t59 = t57 + t58;
        const V t60 = c[2] * t51;
        const V t61 = c[3] * t53;
        const V t62 = t60 + t61;
        const V t63 = c[1] * t50;
        const V t64 = c[0] * t52;
        const V t65 = t63 - t64;
        const V t66 = t65 + x4i;
        const V t67 = c[3] * t51;
        const V t68 = c[2] * t53;
        const V t69 = t67 - t68;
        // real block of 5, multiplier 2
        const V x28i = io.im(28);
        const V x32i = io.im(32);
        const V t70 = x28i + x32i;
        const V t71 = x28i - x32i;
        const V x8i = io.im(8);
        const V x24i = io.im(24);
        const V t72 = x8i + x24i;
        const V t73 = x8i - x24i;
        const V t74 = t70 + t72;
        const V x40i = io.im(40);
        const V t75 = t74 + x40i;
        const V t76 = c[0] * t70;
        const V t77 = x40i - t76;
        const V t78 = c[1] * t72;
        const V t79 = t77 + t78;
        const V t80 = c[2] * t71;
        const V t81 = c[3] * t73;
        const V t82 = t80 + t81;
        const V t83 = c[1] * t70;
        const V t84 = c[0] * t72;
        const V t85 = t83 - t84;
        const V t86 = t85 + x40i;
        const V t87 = c[3] * t71;
        const V t88 = c[2] * t73;
        const V t89 = t87 - t88;
        // real block of 2
        const V t90 = t55 + t75;
        const V t91 = t55 - t75;
        // complex block of 2
        const V t92 = t59 + t79;
        const V t93 = t62 + t82;
        const V t94 = t59 - t79;
        const V t95 = t82 - t62;
        // complex block of 2
        const V t96 = t66 + t86;
        const V t97 = t69 + t89;
        const V t98 = t66 - t86;
        const V t99 = t69 - t89;
        // complex block of 11, multiplier 4
        const V x0r = io.re(0);
        const V t100 = x0r + t40;
        const V x0i = io.im(0);
        const V t101 = x0i + t90;
        const V t102 = c[12] * t40;
        const V t103 = x0r - t102;
        const V t104 = c[12] * t90;
        const V t105 = x0i - t104;
        const V t106 = c[4] * t99;
        const V t107 = c[5] * t98;
        const V t108 = t107 - t106;
        const V t109 = c[4] * t98;
        const V t110 = c[5] * t99;
        const V t111 = t110 + t109;
        const V t112 = c[4] * t49;
        const V t113 = c[5] * t48;
        const V t114 = t112 - t113;
        const V t115 = c[4] * t48;
        const V t116 = c[5] * t49;
        const V t117 = t116 + t115;
        const V t118 = c[6] * t43;
        const V t119 = c[7] * t42;
        const V t120 = t119 + t118;
        const V t121 = c[6] * t42;
        const V t122 = c[7] * t43;
        const V t123 = t122 - t121;
        const V t124 = c[6] * t93;
        const V t125 = c[7] * t92;
        const V t126 = t125 + t124;
        const V t127 = c[6] * t92;
        const V t128 = c[7] * t93;
        const V t129 = t128 - t127;
        const V t130 = c[8] * t95;
        const V t131 = c[9] * t94;
        const V t132 = t131 - t130;
        const V t133 = c[8] * t94;
        const V t134 = c[9] * t95;
        const V t135 = t134 + t133;
        const V t136 = c[8] * t45;
        const V t137 = c[9] * t44;
        const V t138 = t136 - t137;
        const V t139 = c[8] * t44;
        const V t140 = c[9] * t45;
        const V t141 = t140 + t139;
        const V t142 = c[10] * t47;
        const V t143 = c[11] * t46;
        const V t144 = t143 + t142;
        const V t145 = c[10] * t46;
        const V t146 = c[11] * t47;
        const V t147 = t145 - t146;
        const V t148 = c[10] * t97;
        const V t149 = c[11] * t96;
        const V t150 = t149 + t148;
        const V t151 = c[10] * t96;
        const V t152 = c[11] * t97;
        const V t153 = t151 - t152;
        const V t154 = c[13] * t91;
        const V t155 = c[13] * t41;
        // spectrum block of 2
        const V t156 = t103 + t154;
        const V t157 = t103 - t154;
        // complex block of 2
        const V t158 = t123 + t135;
        const V t159 = t132 - t120;
        const V t160 = t123 - t135;
        const V t161 = t120 + t132;
        // complex block of 2
        const V t162 = t147 + t111;
        const V t163 = t108 - t144;
        const V t164 = t147 - t111;
        const V t165 = t144 + t108;
        // spectrum block of 5, multiplier 2
        const V t166 = t159 + t163;
        const V t167 = t166 + t156;
        const V t168 = c[1] * t159;
        const V t169 = c[0] * t163;
        const V t170 = t168 - t169;
        const V t171 = t170 + t156;
        const V t172 = c[3] * t158;
        const V t173 = c[2] * t162;
        const V t174 = t172 + t173;
        const V t175 = t171 - t174;
        const V t176 = t171 + t174;
        const V t177 = c[0] * t159;
        const V t178 = t156 - t177;
        const V t179 = c[1] * t163;
        const V t180 = t178 + t179;
        const V t181 = c[2] * t158;
        const V t182 = c[3] * t162;
        const V t183 = t181 - t182;
        const V t184 = t180 - t183;
        const V t185 = t180 + t183;
        // spectrum block of 5, multiplier 2
        const V t186 = t161 + t165;
        const V t187 = t157 - t186;
        const V t188 = c[1] * t161;
        const V t189 = t157 - t188;
        const V t190 = c[0] * t165;
        const V t191 = t189 + t190;
        const V t192 = c[3] * t160;
        const V t193 = c[2] * t164;
        const V t194 = t192 + t193;
        const V t195 = t191 - t194;
        const V t196 = t191 + t194;
        const V t197 = c[0] * t161;
        const V t198 = c[1] * t165;
        const V t199 = t197 - t198;
        const V t200 = t199 + t157;
        const V t201 = c[2] * t160;
        const V t202 = c[3] * t164;
        const V t203 = t201 - t202;
        const V t204 = t200 - t203;
        const V t205 = t200 + t203;
        // spectrum block of 2
        const V t206 = t105 - t155;
        const V t207 = t105 + t155;
        // complex block of 2
        const V t208 = t129 - t141;
        const V t209 = t138 - t126;
        const V t210 = t129 + t141;
        const V t211 = t126 + t138;
        // complex block of 2
        const V t212 = t153 - t117;
        const V t213 = t114 - t150;
        const V t214 = t153 + t117;
        const V t215 = t150 + t114;
        // spectrum block of 5, multiplier 2
        const V t216 = t209 + t213;
        const V t217 = t216 + t206;
        const V t218 = c[1] * t209;
        const V t219 = c[0] * t213;
        const V t220 = t218 - t219;
        const V t221 = t220 + t206;
        const V t222 = c[3] * t208;
        const V t223 = c[2] * t212;
        const V t224 = t222 + t223;
        const V t225 = t221 - t224;
        const V t226 = t221 + t224;
        const V t227 = c[0] * t209;
        const V t228 = t206 - t227;
        const V t229 = c[1] * t213;
        const V t230 = t228 + t229;
        const V t231 = c[2] * t208;
        const V t232 = c[3] * t212;
        const V t233 = t231 - t232;
        const V t234 = t230 - t233;
        const V t235 = t230 + t233;
        // spectrum block of 5, multiplier 2
        const V t236 = t211 + t215;
        const V t237 = t207 - t236;
        const V t238 = c[1] * t211;
        const V t239 = t207 - t238;
        const V t240 = c[0] * t215;
        const V t241 = t239 + t240;
        const V t242 = c[3] * t210;
        const V t243 = c[2] * t214;
        const V t244 = t242 + t243;
        const V t245 = t241 - t244;
        const V t246 = t241 + t244;
        const V t247 = c[0] * t211;
        const V t248 = c[1] * t215;
        const V t249 = t247 - t248;
        const V t250 = t249 + t207;
        const V t251 = c[2] * t210;
        const V t252 = c[3] * t214;
        const V t253 = t251 - t252;
        const V t254 = t250 - t253;
        const V t255 = t250 + t253;
        // real block of 5, multiplier 2
        const V x27r = io.re(27);
        const V x23r = io.re(23);
        const V t256 = x27r + x23r;
        const V t257 = x27r - x23r;
        const V x3r = io.re(3);
        const V x31r = io.re(31);
        const V t258 = x3r + x31r;
        const V t259 = x3r - x31r;
        const V t260 = t256 + t258;
        const V x15r = io.re(15);
        const V t261 = t260 + x15r;
        const V t262 = c[0] * t256;
        const V t263 = x15r - t262;
        const V t264 = c[1] * t258;
        const V t265 = t263 + t264;
        const V t266 = c[2] * t257;
        const V t267 = c[3] * t259;
        const V t268 = t266 + t267;
        const V t269 = c[1] * t256;
        const V t270 = c[0] * t258;
        const V t271 = t269 - t270;
        const V t272 = t271 + x15r;
        const V t273 = c[3] * t257;
        const V t274 = c[2] * t259;
        const V t275 = t273 - t274;
        // real block of 5, multiplier 2
        const V x39r = io.re(39);
        const V x43r = io.re(43);
        const V t276 = x39r + x43r;
        const V t277 = x39r - x43r;
        const V x19r = io.re(19);
        const V x35r = io.re(35);
        const V t278 = x19r + x35r;
        const V t279 = x19r - x35r;
        const V t280 = t276 + t278;
        const V x7r = io.re(7);
        const V t281 = t280 + x7r;
        const V t282 = c[0] * t276;
        const V t283 = x7r - t282;
        const V t284 = c[1] * t278;
        const V t285 = t283 + t284;
        const V t286 = c[2] * t277;
        const V t287 = c[3] * t279;
        const V t288 = t286 + t287;
        const V t289 = c[1] * t276;
        const V t290 = c[0] * t278;
        const V t291 = t289 - t290;
        const V t292 = t291 + x7r;
        const V t293 = c[3] * t277;
        const V t294 = c[2] * t279;
        const V t295 = t293 - t294;
        // real block of 2
        const V t296 = t261 + t281;
        const V t297 = t261 - t281;
        // complex block of 2
        const V t298 = t265 + t285;
        const V t299 = t268 + t288;
        const V t300 = t265 - t285;
        const V t301 = t288 - t268;
        // complex block of 2
        const V t302 = t272 + t292;
        const V t303 = t275 + t295;
        const V t304 = t272 - t292;
        const V t305 = t275 - t295;
        // real block of 5, multiplier 2
        const V x27i = io.im(27);
        const V x23i = io.im(23);
        const V t306 = x27i + x23i;
        const V t307 = x27i - x23i;
        const V x3i = io.im(3);
        const V x31i = io.im(31);
        const V t308 = x3i + x31i;
        const V t309 = x3i - x31i;
        const V t310 = t306 + t308;
        const V x15i = io.im(15);
        const V t311 = t310 + x15i;
        const V t312 = c[0] * t306;
        const V t313 = x15i - t312;
        const V t314 = c[1] * t308;
        const V t315 = t313 + t314;
        const V t316 = c[2] * t307;
        const V t317 = c[3] * t309;
        const V t318 = t316 + t317;
        const V t319 = c[1] * t306;
        const V t320 = c[0] * t308;
        const V t321 = t319 - t320;
        const V t322 = t321 + x15i;
        const V t323 = c[3] * t307;
        const V t324 = c[2] * t309;
        const V t325 = t323 - t324;
        // real block of 5, multiplier 2
        const V x39i = io.im(39);
        const V x43i = io.im(43);
        const V t326 = x39i + x43i;
        const V t327 = x39i - x43i;
        const V x19i = io.im(19);
        const V x35i = io.im(35);
        const V t328 = x19i + x35i;
        const V t329 = x19i - x35i;
        const V t330 = t326 + t328;
        const V x7i = io.im(7);
        const V t331 = t330 + x7i;
        const V t332 = c[0] * t326;
        const V t333 = x7i - t332;
        const V t334 = c[1] * t328;
        const V t335 = t333 + t334;
        const V t336 = c[2] * t327;
        const V t337 = c[3] * t329;
        const V t338 = t336 + t337;
        const V t339 = c[1] * t326;
        const V t340 = c[0] * t328;
        const V t341 = t339 - t340;
        const V t342 = t341 + x7i;
        const V t343 = c[3] * t327;
        const V t344 = c[2] * t329;
        const V t345 = t343 - t344;
        // real block of 2
        const V t346 = t311 + t331;
        const V t347 = t311 - t331;
        // complex block of 2
        const V t348 = t315 + t335;
        const V t349 = t318 + t338;
        const V t350 = t315 - t335;
        const V t351 = t338 - t318;
        // complex block of 2
        const V t352 = t322 + t342;
        const V t353 = t325 + t345;
        const V t354 = t322 - t342;
        const V t355 = t325 - t345;
        // complex block of 11, multiplier 4
        const V x11r = io.re(11);
        const V t356 = x11r + t296;
        const V x11i = io.im(11);
        const V t357 = x11i + t346;
        const V t358 = c[12] * t296;
        const V t359 = x11r - t358;
        const V t360 = c[12] * t346;
        const V t361 = x11i - t360;
        const V t362 = c[4] * t355;
        const V t363 = c[5] * t354;
        const V t364 = t363 - t362;
        const V t365 = c[4] * t354;
        const V t366 = c[5] * t355;
        const V t367 = t366 + t365;
        const V t368 = c[4] * t305;
        const V t369 = c[5] * t304;
        const V t370 = t368 - t369;
        const V t371 = c[4] * t304;
        const V t372 = c[5] * t305;
        const V t373 = t372 + t371;
        const V t374 = c[6] * t299;
        const V t375 = c[7] * t298;
        const V t376 = t375 + t374;
        const V t377 = c[6] * t298;
        const V t378 = c[7] * t299;
        const V t379 = t378 - t377;
        const V t380 = c[6] * t349;
        const V t381 = c[7] * t348;
        const V t382 = t381 + t380;
        const V t383 = c[6] * t348;
        const V t384 = c[7] * t349;
        const V t385 = t384 - t383;
        const V t386 = c[8] * t351;
        const V t387 = c[9] * t350;
        const V t388 = t387 - t386;
        const V t389 = c[8] * t350;
        const V t390 = c[9] * t351;
        const V t391 = t390 + t389;
        const V t392 = c[8] * t301;
        const V t393 = c[9] * t300;
        const V t394 = t392 - t393;
        const V t395 = c[8] * t300;
        const V t396 = c[9] * t301;
        const V t397 = t396 + t395;
        const V t398 = c[10] * t303;
        const V t399 = c[11] * t302;
        const V t400 = t399 + t398;
        const V t401 = c[10] * t302;
        const V t402 = c[11] * t303;
        const V t403 = t401 - t402;
        const V t404 = c[10] * t353;
        const V t405 = c[11] * t352;
        const V t406 = t405 + t404;
        const V t407 = c[10] * t352;
        const V t408 = c[11] * t353;
        const V t409 = t407 - t408;
        const V t410 = c[13] * t347;
        const V t411 = c[13] * t297;
        // spectrum block of 2
        const V t412 = t359 + t410;
        const V t413 = t359 - t410;
        // complex block of 2
        const V t414 = t379 + t391;
        const V t415 = t388 - t376;
        const V t416 = t379 - t391;
        const V t417 = t376 + t388;
        // complex block of 2
        const V t418 = t403 + t367;
        const V t419 = t364 - t400;
        const V t420 = t403 - t367;
        const V t421 = t400 + t364;
        // spectrum block of 5, multiplier 2
        const V t422 = t415 + t419;
        const V t423 = t422 + t412;
        const V t424 = c[1] * t415;
        const V t425 = c[0] * t419;
        const V t426 = t424 - t425;
        const V t427 = t426 + t412;
        const V t428 = c[3] * t414;
        const V t429 = c[2] * t418;
        const V t430 = t428 + t429;
        const V t431 = t427 - t430;
        const V t432 = t427 + t430;
        const V t433 = c[0] * t415;
        const V t434 = t412 - t433;
        const V t435 = c[1] * t419;
        const V t436 = t434 + t435;
        const V t437 = c[2] * t414;
        const V t438 = c[3] * t418;
        const V t439 = t437 - t438;
        const V t440 = t436 - t439;
        const V t441 = t436 + t439;
        // spectrum block of 5, multiplier 2
        const V t442 = t417 + t421;
        const V t443 = t413 - t442;
        const V t444 = c[1] * t417;
        const V t445 = t413 - t444;
        const V t446 = c[0] * t421;
        const V t447 = t445 + t446;
        const V t448 = c[3] * t416;
        const V t449 = c[2] * t420;
        const V t450 = t448 + t449;
        const V t451 = t447 - t450;
        const V t452 = t447 + t450;
        const V t453 = c[0] * t417;
        const V t454 = c[1] * t421;
        const V t455 = t453 - t454;
        const V t456 = t455 + t413;
        const V t457 = c[2] * t416;
        const V t458 = c[3] * t420;
        const V t459 = t457 - t458;
        const V t460 = t456 - t459;
        const V t461 = t456 + t459;
        // spectrum block of 2
        const V t462 = t361 - t411;
        const V t463 = t361 + t411;
        // complex block of 2
        const V t464 = t385 - t397;
        const V t465 = t394 - t382;
        const V t466 = t385 + t397;
        const V t467 = t382 + t394;
        // complex block of 2
        const V t468 = t409 - t373;
        const V t469 = t370 - t406;
        const V t470 = t409 + t373;
        const V t471 = t406 + t370;
        // spectrum block of 5, multiplier 2
        const V t472 = t465 + t469;
        const V t473 = t472 + t462;
        const V t474 = c[1] * t465;
        const V t475 = c[0] * t469;
        const V t476 = t474 - t475;
        const V t477 = t476 + t462;
        const V t478 = c[3] * t464;
        const V t479 = c[2] * t468;
        const V t480 = t478 + t479;
        const V t481 = t477 - t480;
        const V t482 = t477 + t480;
        const V t483 = c[0] * t465;
        const V t484 = t462 - t483;
        const V t485 = c[1] * t469;
        const V t486 = t484 + t485;
        const V t487 = c[2] * t464;
        const V t488 = c[3] * t468;
        const V t489 = t487 - t488;
        const V t490 = t486 - t489;
        const V t491 = t486 + t489;
        // spectrum block of 5, multiplier 2
        const V t492 = t467 + t471;
        const V t493 = t463 - t492;
        const V t494 = c[1] * t467;
        const V t495 = t463 - t494;
        const V t496 = c[0] * t471;
        const V t497 = t495 + t496;
        const V t498 = c[3] * t466;
        const V t499 = c[2] * t470;
        const V t500 = t498 + t499;
        const V t501 = t497 - t500;
        const V t502 = t497 + t500;
        const V t503 = c[0] * t467;
        const V t504 = c[1] * t471;
        const V t505 = t503 - t504;
        const V t506 = t505 + t463;
        const V t507 = c[2] * t466;
        const V t508 = c[3] * t470;
        const V t509 = t507 - t508;
        const V t510 = t506 - t509;
        const V t511 = t506 + t509;
        // real block of 5, multiplier 2
        const V x38r = io.re(38);
        const V x34r = io.re(34);
        const V t512 = x38r + x34r;
        const V t513 = x38r - x34r;
        const V x14r = io.re(14);
        const V x42r = io.re(42);
        const V t514 = x14r + x42r;
        const V t515 = x14r - x42r;
        const V t516 = t512 + t514;
        const V x26r = io.re(26);
        const V t517 = t516 + x26r;
        const V t518 = c[0] * t512;
        const V t519 = x26r - t518;
        const V t520 = c[1] * t514;
        const V t521 = t519 + t520;
        const V t522 = c[2] * t513;
        const V t523 = c[3] * t515;
        const V t524 = t522 + t523;
        const V t525 = c[1] * t512;
        const V t526 = c[0] * t514;
        const V t527 = t525 - t526;
        const V t528 = t527 + x26r;
        const V t529 = c[3] * t513;
        const V t530 = c[2] * t515;
        const V t531 = t529 - t530;
        // real block of 5, multiplier 2
        const V x6r = io.re(6);
        const V x10r = io.re(10);
        const V t532 = x6r + x10r;
        const V t533 = x6r - x10r;
        const V x30r = io.re(30);
        const V x2r = io.re(2);
        const V t534 = x30r + x2r;
        const V t535 = x30r - x2r;
        const V t536 = t532 + t534;
        const V x18r = io.re(18);
        const V t537 = t536 + x18r;
        const V t538 = c[0] * t532;
        const V t539 = x18r - t538;
        const V t540 = c[1] * t534;
        const V t541 = t539 + t540;
        const V t542 = c[2] * t533;
        const V t543 = c[3] * t535;
        const V t544 = t542 + t543;
        const V t545 = c[1] * t532;
        const V t546 = c[0] * t534;
        const V t547 = t545 - t546;
        const V t548 = t547 + x18r;
        const V t549 = c[3] * t533;
        const V t550 = c[2] * t535;
        const V t551 = t549 - t550;
        // real block of 2
        const V t552 = t517 + t537;
        const V t553 = t517 - t537;
        // complex block of 2
        const V t554 = t521 + t541;
        const V t555 = t524 + t544;
        const V t556 = t521 - t541;
        const V t557 = t544 - t524;
        // complex block of 2
        const V t558 = t528 + t548;
        const V t559 = t531 + t551;
        const V t560 = t528 - t548;
        const V t561 = t531 - t551;
        // real block of 5, multiplier 2
        const V x38i = io.im(38);
        const V x34i = io.im(34);
        const V t562 = x38i + x34i;
        const V t563 = x38i - x34i;
        const V x14i = io.im(14);
        const V x42i = io.im(42);
        const V t564 = x14i + x42i;
        const V t565 = x14i - x42i;
        const V t566 = t562 + t564;
        const V x26i = io.im(26);
        const V t567 = t566 + x26i;
        const V t568 = c[0] * t562;
        const V t569 = x26i - t568;
        const V t570 = c[1] * t564;
        const V t571 = t569 + t570;
        const V t572 = c[2] * t563;
        const V t573 = c[3] * t565;
        const V t574 = t572 + t573;
        const V t575 = c[1] * t562;
        const V t576 = c[0] * t564;
        const V t577 = t575 - t576;
        const V t578 = t577 + x26i;
        const V t579 = c[3] * t563;
        const V t580 = c[2] * t565;
        const V t581 = t579 - t580;
        // real block of 5, multiplier 2
        const V x6i = io.im(6);
        const V x10i = io.im(10);
        const V t582 = x6i + x10i;
        const V t583 = x6i - x10i;
        const V x30i = io.im(30);
        const V x2i = io.im(2);
        const V t584 = x30i + x2i;
        const V t585 = x30i - x2i;
        const V t586 = t582 + t584;
        const V x18i = io.im(18);
        const V t587 = t586 + x18i;
        const V t588 = c[0] * t582;
        const V t589 = x18i - t588;
        const V t590 = c[1] * t584;
        const V t591 = t589 + t590;
        const V t592 = c[2] * t583;
        const V t593 = c[3] * t585;
        const V t594 = t592 + t593;
        const V t595 = c[1] * t582;
        const V t596 = c[0] * t584;
        const V t597 = t595 - t596;
        const V t598 = t597 + x18i;
        const V t599 = c[3] * t583;
        const V t600 = c[2] * t585;
        const V t601 = t599 - t600;
        // real block of 2
        const V t602 = t567 + t587;
        const V t603 = t567 - t587;
        // complex block of 2
        const V t604 = t571 + t591;
        const V t605 = t574 + t594;
        const V t606 = t571 - t591;
        const V t607 = t594 - t574;
        // complex block of 2
        const V t608 = t578 + t598;
        const V t609 = t581 + t601;
        const V t610 = t578 - t598;
        const V t611 = t581 - t601;
        // complex block of 11, multiplier 4
        const V x22r = io.re(22);
        const V t612 = x22r + t552;
        const V x22i = io.im(22);
        const V t613 = x22i + t602;
        const V t614 = c[12] * t552;
        const V t615 = x22r - t614;
        const V t616 = c[12] * t602;
        const V t617 = x22i - t616;
        const V t618 = c[4] * t611;
        const V t619 = c[5] * t610;
        const V t620 = t619 - t618;
        const V t621 = c[4] * t610;
        const V t622 = c[5] * t611;
        const V t623 = t622 + t621;
        const V t624 = c[4] * t561;
        const V t625 = c[5] * t560;
        const V t626 = t624 - t625;
        const V t627 = c[4] * t560;
        const V t628 = c[5] * t561;
        const V t629 = t628 + t627;
        const V t630 = c[6] * t555;
        const V t631 = c[7] * t554;
        const V t632 = t631 + t630;
        const V t633 = c[6] * t554;
        const V t634 = c[7] * t555;
        const V t635 = t634 - t633;
        const V t636 = c[6] * t605;
        const V t637 = c[7] * t604;
        const V t638 = t637 + t636;
        const V t639 = c[6] * t604;
        const V t640 = c[7] * t605;
        const V t641 = t640 - t639;
        const V t642 = c[8] * t607;
        const V t643 = c[9] * t606;
        const V t644 = t643 - t642;
        const V t645 = c[8] * t606;
        const V t646 = c[9] * t607;
        const V t647 = t646 + t645;
        const V t648 = c[8] * t557;
        const V t649 = c[9] * t556;
        const V t650 = t648 - t649;
        const V t651 = c[8] * t556;
        const V t652 = c[9] * t557;
        const V t653 = t652 + t651;
        const V t654 = c[10] * t559;
        const V t655 = c[11] * t558;
        const V t656 = t655 + t654;
        const V t657 = c[10] * t558;
        const V t658 = c[11] * t559;
        const V t659 = t657 - t658;
        const V t660 = c[10] * t609;
        const V t661 = c[11] * t608;
        const V t662 = t661 + t660;
        const V t663 = c[10] * t608;
        const V t664 = c[11] * t609;
        const V t665 = t663 - t664;
        const V t666 = c[13] * t603;
        const V t667 = c[13] * t553;
        // spectrum block of 2
        const V t668 = t615 + t666;
        const V t669 = t615 - t666;
        // complex block of 2
        const V t670 = t635 + t647;
        const V t671 = t644 - t632;
        const V t672 = t635 - t647;
        const V t673 = t632 + t644;
        // complex block of 2
        const V t674 = t659 + t623;
        const V t675 = t620 - t656;
        const V t676 = t659 - t623;
        const V t677 = t656 + t620;
        // spectrum block of 5, multiplier 2
        const V t678 = t671 + t675;
        const V t679 = t678 + t668;
        const V t680 = c[1] * t671;
        const V t681 = c[0] * t675;
        const V t682 = t680 - t681;
        const V t683 = t682 + t668;
        const V t684 = c[3] * t670;
        const V t685 = c[2] * t674;
        const V t686 = t684 + t685;
        const V t687 = t683 - t686;
        const V t688 = t683 + t686;
        const V t689 = c[0] * t671;
        const V t690 = t668 - t689;
        const V t691 = c[1] * t675;
        const V t692 = t690 + t691;
        const V t693 = c[2] * t670;
        const V t694 = c[3] * t674;
        const V t695 = t693 - t694;
        const V t696 = t692 - t695;
        const V t697 = t692 + t695;
        // spectrum block of 5, multiplier 2
        const V t698 = t673 + t677;
        const V t699 = t669 - t698;
        const V t700 = c[1] * t673;
        const V t701 = t669 - t700;
        const V t702 = c[0] * t677;
        const V t703 = t701 + t702;
        const V t704 = c[3] * t672;
        const V t705 = c[2] * t676;
        const V t706 = t704 + t705;
        const V t707 = t703 - t706;
        const V t708 = t703 + t706;
        const V t709 = c[0] * t673;
        const V t710 = c[1] * t677;
        const V t711 = t709 - t710;
        const V t712 = t711 + t669;
        const V t713 = c[2] * t672;
        const V t714 = c[3] * t676;
        const V t715 = t713 - t714;
        const V t716 = t712 - t715;
        const V t717 = t712 + t715;
        // spectrum block of 2
        const V t718 = t617 - t667;
        const V t719 = t617 + t667;
        // complex block of 2
        const V t720 = t641 - t653;
        const V t721 = t650 - t638;
        const V t722 = t641 + t653;
        const V t723 = t638 + t650;
        // complex block of 2
        const V t724 = t665 - t629;
        const V t725 = t626 - t662;
        const V t726 = t665 + t629;
        const V t727 = t662 + t626;
        // spectrum block of 5, multiplier 2
        const V t728 = t721 + t725;
        const V t729 = t728 + t718;
        const V t730 = c[1] * t721;
        const V t731 = c[0] * t725;
        const V t732 = t730 - t731;
        const V t733 = t732 + t718;
        const V t734 = c[3] * t720;
        const V t735 = c[2] * t724;
        const V t736 = t734 + t735;
        const V t737 = t733 - t736;
        const V t738 = t733 + t736;
        const V t739 = c[0] * t721;
        const V t740 = t718 - t739;
        const V t741 = c[1] * t725;
        const V t742 = t740 + t741;
        const V t743 = c[2] * t720;
        const V t744 = c[3] * t724;
        const V t745 = t743 - t744;
        const V t746 = t742 - t745;
        const V t747 = t742 + t745;
        // spectrum block of 5, multiplier 2
        const V t748 = t723 + t727;
        const V t749 = t719 - t748;
        const V t750 = c[1] * t723;
        const V t751 = t719 - t750;
        const V t752 = c[0] * t727;
        const V t753 = t751 + t752;
        const V t754 = c[3] * t722;
        const V t755 = c[2] * t726;
        const V t756 = t754 + t755;
        const V t757 = t753 - t756;
        const V t758 = t753 + t756;
        const V t759 = c[0] * t723;
        const V t760 = c[1] * t727;
        const V t761 = t759 - t760;
        const V t762 = t761 + t719;
        const V t763 = c[2] * t722;
        const V t764 = c[3] * t726;
        const V t765 = t763 - t764;
        const V t766 = t762 - t765;
        const V t767 = t762 + t765;
        // real block of 5, multiplier 2
        const V x5r = io.re(5);
        const V x1r = io.re(1);
        const V t768 = x5r + x1r;
        const V t769 = x5r - x1r;
        const V x25r = io.re(25);
        const V x9r = io.re(9);
        const V t770 = x25r + x9r;
        const V t771 = x25r - x9r;
        const V t772 = t768 + t770;
        const V x37r = io.re(37);
        const V t773 = t772 + x37r;
        const V t774 = c[0] * t768;
        const V t775 = x37r - t774;
        const V t776 = c[1] * t770;
        const V t777 = t775 + t776;
        const V t778 = c[2] * t769;
        const V t779 = c[3] * t771;
        const V t780 = t778 + t779;
        const V t781 = c[1] * t768;
        const V t782 = c[0] * t770;
        const V t783 = t781 - t782;
        const V t784 = t783 + x37r;
        const V t785 = c[3] * t769;
        const V t786 = c[2] * t771;
        const V t787 = t785 - t786;
        // real block of 5, multiplier 2
        const V x17r = io.re(17);
        const V x21r = io.re(21);
        const V t788 = x17r + x21r;
        const V t789 = x17r - x21r;
        const V x41r = io.re(41);
        const V x13r = io.re(13);
        const V t790 = x41r + x13r;
        const V t791 = x41r - x13r;
        const V t792 = t788 + t790;
        const V x29r = io.re(29);
        const V t793 = t792 + x29r;
        const V t794 = c[0] * t788;
        const V t795 = x29r - t794;
        const V t796 = c[1] * t790;
        const V t797 = t795 + t796;
        const V t798 = c[2] * t789;
        const V t799 = c[3] * t791;
        const V t800 = t798 + t799;
        const V t801 = c[1] * t788;
        const V t802 = c[0] * t790;
        const V t803 = t801 - t802;
        const V t804 = t803 + x29r;
        const V t805 = c[3] * t789;
        const V t806 = c[2] * t791;
        const V t807 = t805 - t806;
        // real block of 2
        const V t808 = t773 + t793;
        const V t809 = t773 - t793;
        // complex block of 2
        const V t810 = t777 + t797;
        const V t811 = t780 + t800;
        const V t812 = t777 - t797;
        const V t813 = t800 - t780;
        // complex block of 2
        const V t814 = t784 + t804;
        const V t815 = t787 + t807;
        const V t816 = t784 - t804;
        const V t817 = t787 - t807;
        // real block of 5, multiplier 2
        const V x5i = io.im(5);
        const V x1i = io.im(1);
        const V t818 = x5i + x1i;
        const V t819 = x5i - x1i;
        const V x25i = io.im(25);
        const V x9i = io.im(9);
        const V t820 = x25i + x9i;
        const V t821 = x25i - x9i;
        const V t822 = t818 + t820;
        const V x37i = io.im(37);
        const V t823 = t822 + x37i;
        const V t824 = c[0] * t818;
        const V t825 = x37i - t824;
        const V t826 = c[1] * t820;
        const V t827 = t825 + t826;
        const V t828 = c[2] * t819;
        const V t829 = c[3] * t821;
        const V t830 = t828 + t829;
        const V t831 = c[1] * t818;
        const V t832 = c[0] * t820;
        const V t833 = t831 - t832;
        const V t834 = t833 + x37i;
        const V t835 = c[3] * t819;
        const V t836 = c[2] * t821;
        const V t837 = t835 - t836;
        // real block of 5, multiplier 2
        const V x17i = io.im(17);
        const V x21i = io.im(21);
        const V t838 = x17i + x21i;
        const V t839 = x17i - x21i;
        const V x41i = io.im(41);
        const V x13i = io.im(13);
        const V t840 = x41i + x13i;
        const V t841 = x41i - x13i;
        const V t842 = t838 + t840;
        const V x29i = io.im(29);
        const V t843 = t842 + x29i;
        const V t844 = c[0] * t838;
        const V t845 = x29i - t844;
        const V t846 = c[1] * t840;
        const V t847 = t845 + t846;
        const V t848 = c[2] * t839;
        const V t849 = c[3] * t841;
        const V t850 = t848 + t849;
        const V t851 = c[1] * t838;
        const V t852 = c[0] * t840;
        const V t853 = t851 - t852;
        const V t854 = t853 + x29i;
        const V t855 = c[3] * t839;
        const V t856 = c[2] * t841;
        const V t857 = t855 - t856;
        // real block of 2
        const V t858 = t823 + t843;
        const V t859 = t823 - t843;
        // complex block of 2
        const V t860 = t827 + t847;
        const V t861 = t830 + t850;
        const V t862 = t827 - t847;
        const V t863 = t850 - t830;
        // complex block of 2
        const V t864 = t834 + t854;
        const V t865 = t837 + t857;
        const V t866 = t834 - t854;
        const V t867 = t837 - t857;
        // complex block of 11, multiplier 4
        const V x33r = io.re(33);
        const V t868 = x33r + t808;
        const V x33i = io.im(33);
        const V t869 = x33i + t858;
        const V t870 = c[12] * t808;
        const V t871 = x33r - t870;
        const V t872 = c[12] * t858;
        const V t873 = x33i - t872;
        const V t874 = c[4] * t867;
        const V t875 = c[5] * t866;
        const V t876 = t875 - t874;
        const V t877 = c[4] * t866;
        const V t878 = c[5] * t867;
        const V t879 = t878 + t877;
        const V t880 = c[4] * t817;
        const V t881 = c[5] * t816;
        const V t882 = t880 - t881;
        const V t883 = c[4] * t816;
        const V t884 = c[5] * t817;
        const V t885 = t884 + t883;
        const V t886 = c[6] * t811;
        const V t887 = c[7] * t810;
        const V t888 = t887 + t886;
        const V t889 = c[6] * t810;
        const V t890 = c[7] * t811;
        const V t891 = t890 - t889;
        const V t892 = c[6] * t861;
        const V t893 = c[7] * t860;
        const V t894 = t893 + t892;
        const V t895 = c[6] * t860;
        const V t896 = c[7] * t861;
        const V t897 = t896 - t895;
        const V t898 = c[8] * t863;
        const V t899 = c[9] * t862;
        const V t900 = t899 - t898;
        const V t901 = c[8] * t862;
        const V t902 = c[9] * t863;
        const V t903 = t902 + t901;
        const V t904 = c[8] * t813;
        const V t905 = c[9] * t812;
        const V t906 = t904 - t905;
        const V t907 = c[8] * t812;
        const V t908 = c[9] * t813;
        const V t909 = t908 + t907;
        const V t910 = c[10] * t815;
        const V t911 = c[11] * t814;
        const V t912 = t911 + t910;
        const V t913 = c[10] * t814;
        const V t914 = c[11] * t815;
        const V t915 = t913 - t914;
        const V t916 = c[10] * t865;
        const V t917 = c[11] * t864;
        const V t918 = t917 + t916;
        const V t919 = c[10] * t864;
        const V t920 = c[11] * t865;
        const V t921 = t919 - t920;
        const V t922 = c[13] * t859;
        const V t923 = c[13] * t809;
        // spectrum block of 2
        const V t924 = t871 + t922;
        const V t925 = t871 - t922;
        // complex block of 2
        const V t926 = t891 + t903;
        const V t927 = t900 - t888;
        const V t928 = t891 - t903;
        const V t929 = t888 + t900;
        // complex block of 2
        const V t930 = t915 + t879;
        const V t931 = t876 - t912;
        const V t932 = t915 - t879;
        const V t933 = t912 + t876;
        // spectrum block of 5, multiplier 2
        const V t934 = t927 + t931;
        const V t935 = t934 + t924;
        const V t936 = c[1] * t927;
        const V t937 = c[0] * t931;
        const V t938 = t936 - t937;
        const V t939 = t938 + t924;
        const V t940 = c[3] * t926;
        const V t941 = c[2] * t930;
        const V t942 = t940 + t941;
        const V t943 = t939 - t942;
        const V t944 = t939 + t942;
        const V t945 = c[0] * t927;
        const V t946 = t924 - t945;
        const V t947 = c[1] * t931;
        const V t948 = t946 + t947;
        const V t949 = c[2] * t926;
        const V t950 = c[3] * t930;
        const V t951 = t949 - t950;
        const V t952 = t948 - t951;
        const V t953 = t948 + t951;
        // spectrum block of 5, multiplier 2
        const V t954 = t929 + t933;
        const V t955 = t925 - t954;
        const V t956 = c[1] * t929;
        const V t957 = t925 - t956;
        const V t958 = c[0] * t933;
        const V t959 = t957 + t958;
        const V t960 = c[3] * t928;
        const V t961 = c[2] * t932;
        const V t962 = t960 + t961;
        const V t963 = t959 - t962;
        const V t964 = t959 + t962;
        const V t965 = c[0] * t929;
        const V t966 = c[1] * t933;
        const V t967 = t965 - t966;
        const V t968 = t967 + t925;
        const V t969 = c[2] * t928;
        const V t970 = c[3] * t932;
        const V t971 = t969 - t970;
        const V t972 = t968 - t971;
        const V t973 = t968 + t971;
        // spectrum block of 2
        const V t974 = t873 - t923;
        const V t975 = t873 + t923;
        // complex block of 2
        const V t976 = t897 - t909;
        const V t977 = t906 - t894;
        const V t978 = t897 + t909;
        const V t979 = t894 + t906;
        // complex block of 2
        const V t980 = t921 - t885;
        const V t981 = t882 - t918;
        const V t982 = t921 + t885;
        const V t983 = t918 + t882;
        // spectrum block of 5, multiplier 2
        const V t984 = t977 + t981;
        const V t985 = t984 + t974;
        const V t986 = c[1] * t977;
        const V t987 = c[0] * t981;
        const V t988 = t986 - t987;
        const V t989 = t988 + t974;
        const V t990 = c[3] * t976;
        const V t991 = c[2] * t980;
        const V t992 = t990 + t991;
        const V t993 = t989 - t992;
        const V t994 = t989 + t992;
        const V t995 = c[0] * t977;
        const V t996 = t974 - t995;
        const V t997 = c[1] * t981;
        const V t998 = t996 + t997;
        const V t999 = c[2] * t976;
        const V t1000 = c[3] * t980;
        const V t1001 = t999 - t1000;
        const V t1002 = t998 - t1001;
        const V t1003 = t998 + t1001;
        // spectrum block of 5, multiplier 2
        const V t1004 = t979 + t983;
        const V t1005 = t975 - t1004;
        const V t1006 = c[1] * t979;
        const V t1007 = t975 - t1006;
        const V t1008 = c[0] * t983;
        const V t1009 = t1007 + t1008;
        const V t1010 = c[3] * t978;
        const V t1011 = c[2] * t982;
        const V t1012 = t1010 + t1011;
        const V t1013 = t1009 - t1012;
        const V t1014 = t1009 + t1012;
        const V t1015 = c[0] * t979;
        const V t1016 = c[1] * t983;
        const V t1017 = t1015 - t1016;
        const V t1018 = t1017 + t975;
        const V t1019 = c[2] * t978;
        const V t1020 = c[3] * t982;
        const V t1021 = t1019 - t1020;
        const V t1022 = t1018 - t1021;
        const V t1023 = t1018 + t1021;
        // complex block of 2
        const V t1024 = t100 + t612;
        const V t1025 = t101 + t613;
        const V t1026 = t100 - t612;
        const V t1027 = t101 - t613;
        // complex block of 2
        const V t1028 = t356 + t868;
        const V t1029 = t357 + t869;
        const V t1030 = t356 - t868;
        const V t1031 = t357 - t869;
        // complex block of 2
        const V t1032 = t1024 + t1028;
        io.re(0, t1032);
        const V t1033 = t1025 + t1029;
        io.im(0, t1033);
        const V t1034 = t1024 - t1028;
        io.re(22, t1034);
        const V t1035 = t1025 - t1029;
        io.im(22, t1035);
        // complex block of 2
        const V t1036 = t1026 - t1031;
        io.re(11, t1036);
        const V t1037 = t1027 + t1030;
        io.im(11, t1037);
        const V t1038 = t1026 + t1031;
        io.re(33, t1038);
        const V t1039 = t1027 - t1030;
        io.im(33, t1039);
        // complex block of 2
        const V t1040 = t167 + t679;
        const V t1041 = t217 + t729;
        const V t1042 = t167 - t679;
        const V t1043 = t217 - t729;
        // complex block of 2
        const V t1044 = t423 + t935;
        const V t1045 = t473 + t985;
        const V t1046 = t423 - t935;
        const V t1047 = t473 - t985;
        // complex block of 2
        const V t1048 = t1040 + t1044;
        io.re(4, t1048);
        const V t1049 = t1041 + t1045;
        io.im(4, t1049);
        const V t1050 = t1040 - t1044;
        io.re(26, t1050);
        const V t1051 = t1041 - t1045;
        io.im(26, t1051);
        // complex block of 2
        const V t1052 = t1042 - t1047;
        io.re(15, t1052);
        const V t1053 = t1043 + t1046;
        io.im(15, t1053);
        const V t1054 = t1042 + t1047;
        io.re(37, t1054);
        const V t1055 = t1043 - t1046;
        io.im(37, t1055);
        // complex block of 2
        const V t1056 = t196 + t708;
        const V t1057 = t246 + t758;
        const V t1058 = t196 - t708;
        const V t1059 = t246 - t758;
        // complex block of 2
        const V t1060 = t452 + t964;
        const V t1061 = t502 + t1014;
        const V t1062 = t452 - t964;
        const V t1063 = t502 - t1014;
        // complex block of 2
        const V t1064 = t1056 + t1060;
        io.re(8, t1064);
        const V t1065 = t1057 + t1061;
        io.im(8, t1065);
        const V t1066 = t1056 - t1060;
        io.re(30, t1066);
        const V t1067 = t1057 - t1061;
        io.im(30, t1067);
        // complex block of 2
        const V t1068 = t1058 - t1063;
        io.re(19, t1068);
        const V t1069 = t1059 + t1062;
        io.im(19, t1069);
        const V t1070 = t1058 + t1063;
        io.re(41, t1070);
        const V t1071 = t1059 - t1062;
        io.im(41, t1071);
        // complex block of 2
        const V t1072 = t184 + t696;
        const V t1073 = t234 + t746;
        const V t1074 = t184 - t696;
        const V t1075 = t234 - t746;
        // complex block of 2
        const V t1076 = t440 + t952;
        const V t1077 = t490 + t1002;
        const V t1078 = t440 - t952;
        const V t1079 = t490 - t1002;
        // complex block of 2
        const V t1080 = t1072 + t1076;
        io.re(12, t1080);
        const V t1081 = t1073 + t1077;
        io.im(12, t1081);
        const V t1082 = t1072 - t1076;
        io.re(34, t1082);
        const V t1083 = t1073 - t1077;
        io.im(34, t1083);
        // complex block of 2
        const V t1084 = t1074 - t1079;
        io.re(23, t1084);
        const V t1085 = t1075 + t1078;
        io.im(23, t1085);
        const V t1086 = t1074 + t1079;
        io.re(1, t1086);
        const V t1087 = t1075 - t1078;
        io.im(1, t1087);
        // complex block of 2
        const V t1088 = t185 + t697;
        const V t1089 = t235 + t747;
        const V t1090 = t185 - t697;
        const V t1091 = t235 - t747;
        // complex block of 2
        const V t1092 = t441 + t953;
        const V t1093 = t491 + t1003;
        const V t1094 = t441 - t953;
        const V t1095 = t491 - t1003;
        // complex block of 2
        const V t1096 = t1088 + t1092;
        io.re(16, t1096);
        const V t1097 = t1089 + t1093;
        io.im(16, t1097);
        const V t1098 = t1088 - t1092;
        io.re(38, t1098);
        const V t1099 = t1089 - t1093;
        io.im(38, t1099);
        // complex block of 2
        const V t1100 = t1090 - t1095;
        io.re(27, t1100);
        const V t1101 = t1091 + t1094;
        io.im(27, t1101);
        const V t1102 = t1090 + t1095;
        io.re(5, t1102);
        const V t1103 = t1091 - t1094;
        io.im(5, t1103);
        // complex block of 2
        const V t1104 = t175 + t687;
        const V t1105 = t225 + t737;
        const V t1106 = t175 - t687;
        const V t1107 = t225 - t737;
        // complex block of 2
        const V t1108 = t431 + t943;
        const V t1109 = t481 + t993;
        const V t1110 = t431 - t943;
        const V t1111 = t481 - t993;
        // complex block of 2
        const V t1112 = t1104 + t1108;
        io.re(20, t1112);
        const V t1113 = t1105 + t1109;
        io.im(20, t1113);
        const V t1114 = t1104 - t1108;
        io.re(42, t1114);
        const V t1115 = t1105 - t1109;
        io.im(42, t1115);
        // complex block of 2
        const V t1116 = t1106 - t1111;
        io.re(31, t1116);
        const V t1117 = t1107 + t1110;
        io.im(31, t1117);
        const V t1118 = t1106 + t1111;
        io.re(9, t1118);
        const V t1119 = t1107 - t1110;
        io.im(9, t1119);
        // complex block of 2
        const V t1120 = t195 + t707;
        const V t1121 = t245 + t757;
        const V t1122 = t195 - t707;
        const V t1123 = t245 - t757;
        // complex block of 2
        const V t1124 = t451 + t963;
        const V t1125 = t501 + t1013;
        const V t1126 = t451 - t963;
        const V t1127 = t501 - t1013;
        // complex block of 2
        const V t1128 = t1120 + t1124;
        io.re(24, t1128);
        const V t1129 = t1121 + t1125;
        io.im(24, t1129);
        const V t1130 = t1120 - t1124;
        io.re(2, t1130);
        const V t1131 = t1121 - t1125;
        io.im(2, t1131);
        // complex block of 2
        const V t1132 = t1122 - t1127;
        io.re(35, t1132);
        const V t1133 = t1123 + t1126;
        io.im(35, t1133);
        const V t1134 = t1122 + t1127;
        io.re(13, t1134);
        const V t1135 = t1123 - t1126;
        io.im(13, t1135);
        // complex block of 2
        const V t1136 = t205 + t717;
        const V t1137 = t255 + t767;
        const V t1138 = t205 - t717;
        const V t1139 = t255 - t767;
        // complex block of 2
        const V t1140 = t461 + t973;
        const V t1141 = t511 + t1023;
        const V t1142 = t461 - t973;
        const V t1143 = t511 - t1023;
        // complex block of 2
        const V t1144 = t1136 + t1140;
        io.re(28, t1144);
        const V t1145 = t1137 + t1141;
        io.im(28, t1145);
        const V t1146 = t1136 - t1140;
        io.re(6, t1146);
        const V t1147 = t1137 - t1141;
        io.im(6, t1147);
        // complex block of 2
        const V t1148 = t1138 - t1143;
        io.re(39, t1148);
        const V t1149 = t1139 + t1142;
        io.im(39, t1149);
        const V t1150 = t1138 + t1143;
        io.re(17, t1150);
        const V t1151 = t1139 - t1142;
        io.im(17, t1151);
        // complex block of 2
        const V t1152 = t204 + t716;
        const V t1153 = t254 + t766;
        const V t1154 = t204 - t716;
        const V t1155 = t254 - t766;
        // complex block of 2
        const V t1156 = t460 + t972;
        const V t1157 = t510 + t1022;
        const V t1158 = t460 - t972;
        const V t1159 = t510 - t1022;
        // complex block of 2
        const V t1160 = t1152 + t1156;
        io.re(32, t1160);
        const V t1161 = t1153 + t1157;
        io.im(32, t1161);
        const V t1162 = t1152 - t1156;
        io.re(10, t1162);
        const V t1163 = t1153 - t1157;
        io.im(10, t1163);
        // complex block of 2
        const V t1164 = t1154 - t1159;
        io.re(43, t1164);
        const V t1165 = t1155 + t1158;
        io.im(43, t1165);
        const V t1166 = t1154 + t1159;
        io.re(21, t1166);
        const V t1167 = t1155 - t1158;
        io.im(21, t1167);
        // complex block of 2
        const V t1168 = t176 + t688;
        const V t1169 = t226 + t738;
        const V t1170 = t176 - t688;
        const V t1171 = t226 - t738;
        // complex block of 2
        const V t1172 = t432 + t944;
        const V t1173 = t482 + t994;
        const V t1174 = t432 - t944;
        const V t1175 = t482 - t994;
        // complex block of 2
        const V t1176 = t1168 + t1172;
        io.re(36, t1176);
        const V t1177 = t1169 + t1173;
        io.im(36, t1177);
        const V t1178 = t1168 - t1172;
        io.re(14, t1178);
        const V t1179 = t1169 - t1173;
        io.im(14, t1179);
        // complex block of 2
        const V t1180 = t1170 - t1175;
        io.re(3, t1180);
        const V t1181 = t1171 + t1174;
        io.im(3, t1181);
        const V t1182 = t1170 + t1175;
        io.re(25, t1182);
        const V t1183 = t1171 - t1174;
        io.im(25, t1183);
        // complex block of 2
        const V t1184 = t187 + t699;
        const V t1185 = t237 + t749;
        const V t1186 = t187 - t699;
        const V t1187 = t237 - t749;
        // complex block of 2
        const V t1188 = t443 + t955;
        const V t1189 = t493 + t1005;
        const V t1190 = t443 - t955;
        const V t1191 = t493 - t1005;
        // complex block of 2
        const V t1192 = t1184 + t1188;
        io.re(40, t1192);
        const V t1193 = t1185 + t1189;
        io.im(40, t1193);
        const V t1194 = t1184 - t1188;
        io.re(18, t1194);
        const V t1195 = t1185 - t1189;
        io.im(18, t1195);
        // complex block of 2
        const V t1196 = t1186 - t1191;
        io.re(7, t1196);
        const V t1197 = t1187 + t1190;
        io.im(7, t1197);
        const V t1198 = t1186 + t1191;
        io.re(29, t1198);
        const V t1199 = t1187 - t1190;
        io.im(29, t1199);
    }
};

}  // namespace zulg
