// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 33.
// Inverse DFT to 33 real points, prime-factor 3, 11.
// 146 additions, 122 subtractions, 203 multiplications (236 with `scale`); 18 constants; 37 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<33> {
    static constexpr int steps = 504;  // with `scale`
    static constexpr double inverseRoot = 0.17407765595569785;  // 1/sqrt(33), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.6631646485033863,  // c[6]: -P[1] of 11
        0.014582488655234533,  // c[7]: -Q[1] of 11
        0.01576834991891041,  // c[8]: -Q[2] of 11
        0.6631375114867465,  // c[9]: -P[2] of 11
        0.16065279913205563,  // c[10]: P[3] of 11
        0.6435764741901582,  // c[11]: -Q[3] of 11
        0.23362193480940913,  // c[12]: -Q[4] of 11
        0.6208226732134613,  // c[13]: P[4] of 11
        0.1,  // c[14]: 1/10
        0.33166247903553997,  // c[15]: -beta of 11
        1.7320508075688772,  // c[16]: sin 2 pi 1/3 times 2
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
        const V x12r = io.re(12);
        const V t21 = two * x12r;
        const V x12i = io.im(12);
        const V t22 = two * x12i;
        const V x13r = io.re(13);
        const V t23 = two * x13r;
        const V x13i = io.im(13);
        const V t24 = two * x13i;
        const V x14r = io.re(14);
        const V t25 = two * x14r;
        const V x14i = io.im(14);
        const V t26 = two * x14i;
        const V x15r = io.re(15);
        const V t27 = two * x15r;
        const V x15i = io.im(15);
        const V t28 = two * x15i;
        const V x16r = io.re(16);
        const V t29 = two * x16r;
        const V x16i = io.im(16);
        const V t30 = two * x16i;
        // spectrum block of 3, multiplier 2
        const V x0r = io.re(0);
        const V t31 = t20 + x0r;
        const V t32 = c[4] * t20;
        const V t33 = x0r - t32;
        const V x11i = io.im(11);
        const V t34 = c[16] * x11i;
        const V t35 = t33 - t34;
        const V t36 = t33 + t34;
        // complex block of 3, multiplier 2
        const V t37 = t26 - t15;
        const V t38 = t25 + t14;
        const V t39 = t26 + t15;
        const V t40 = t25 - t14;
        const V t41 = t37 + t5;
        const V t42 = t38 + t4;
        const V t43 = c[4] * t37;
        const V t44 = t5 - t43;
        const V t45 = c[4] * t38;
        const V t46 = t4 - t45;
        const V t47 = c[5] * t39;
        const V t48 = c[5] * t40;
        const V t49 = t44 + t48;
        const V t50 = t46 - t47;
        const V t51 = t44 - t48;
        const V t52 = t46 + t47;
        // complex block of 3, multiplier 2
        const V t53 = t30 + t9;
        const V t54 = t29 + t8;
        const V t55 = t9 - t30;
        const V t56 = t29 - t8;
        const V t57 = t11 - t53;
        const V t58 = t54 + t10;
        const V t59 = c[4] * t53;
        const V t60 = t59 + t11;
        const V t61 = c[4] * t54;
        const V t62 = t10 - t61;
        const V t63 = c[5] * t55;
        const V t64 = c[5] * t56;
        const V t65 = t60 + t64;
        const V t66 = t62 - t63;
        const V t67 = t60 - t64;
        const V t68 = t62 + t63;
        // complex block of 3, multiplier 2
        const V t69 = t24 + t3;
        const V t70 = t23 + t2;
        const V t71 = t3 - t24;
        const V t72 = t23 - t2;
        const V t73 = t17 - t69;
        const V t74 = t70 + t16;
        const V t75 = c[4] * t69;
        const V t76 = t75 + t17;
        const V t77 = c[4] * t70;
        const V t78 = t16 - t77;
        const V t79 = c[5] * t71;
        const V t80 = c[5] * t72;
        const V t81 = t76 + t80;
        const V t82 = t78 - t79;
        const V t83 = t76 - t80;
        const V t84 = t78 + t79;
        // complex block of 3, multiplier 2
        const V t85 = t1 - t19;
        const V t86 = t18 + t0;
        const V t87 = t19 + t1;
        const V t88 = t18 - t0;
        const V t89 = t85 + t22;
        const V t90 = t86 + t21;
        const V t91 = c[4] * t85;
        const V t92 = t22 - t91;
        const V t93 = c[4] * t86;
        const V t94 = t21 - t93;
        const V t95 = c[5] * t87;
        const V t96 = c[5] * t88;
        const V t97 = t92 + t96;
        const V t98 = t94 + t95;
        const V t99 = t92 - t96;
        const V t100 = t94 - t95;
        // complex block of 3, multiplier 2
        const V t101 = t7 - t13;
        const V t102 = t12 + t6;
        const V t103 = t13 + t7;
        const V t104 = t12 - t6;
        const V t105 = t101 + t28;
        const V t106 = t102 + t27;
        const V t107 = c[4] * t101;
        const V t108 = t28 - t107;
        const V t109 = c[4] * t102;
        const V t110 = t27 - t109;
        const V t111 = c[5] * t103;
        const V t112 = c[5] * t104;
        const V t113 = t108 + t112;
        const V t114 = t110 + t111;
        const V t115 = t108 - t112;
        const V t116 = t110 - t111;
        // real block of 5
        const V t117 = t58 + t106;
        const V t118 = t58 - t106;
        const V t119 = t74 + t90;
        const V t120 = t74 - t90;
        const V t121 = t117 + t119;
        const V t122 = t121 + t42;
        const V t123 = c[0] * t117;
        const V t124 = c[1] * t119;
        const V t125 = t123 - t124;
        const V t126 = t125 + t42;
        const V t127 = c[2] * t118;
        const V t128 = c[3] * t120;
        const V t129 = t128 - t127;
        const V t130 = c[1] * t117;
        const V t131 = t42 - t130;
        const V t132 = c[0] * t119;
        const V t133 = t131 + t132;
        const V t134 = c[3] * t118;
        const V t135 = c[2] * t120;
        const V t136 = t134 + t135;
        // real block of 5
        const V t137 = t105 - t57;
        const V t138 = t57 + t105;
        const V t139 = t73 + t89;
        const V t140 = t73 - t89;
        const V t141 = t137 + t139;
        const V t142 = t141 + t41;
        const V t143 = c[0] * t137;
        const V t144 = c[1] * t139;
        const V t145 = t143 - t144;
        const V t146 = t145 + t41;
        const V t147 = c[2] * t138;
        const V t148 = c[3] * t140;
        const V t149 = t147 + t148;
        const V t150 = c[1] * t137;
        const V t151 = t41 - t150;
        const V t152 = c[0] * t139;
        const V t153 = t151 + t152;
        const V t154 = c[3] * t138;
        const V t155 = c[2] * t140;
        const V t156 = t154 - t155;
        // spectrum block of 11, multiplier 3
        const V t157 = c[14] * t122;
        const V t158 = t31 - t157;
        const V t159 = c[6] * t156;
        const V t160 = c[7] * t153;
        const V t161 = t160 + t159;
        const V t162 = c[6] * t153;
        const V t163 = c[7] * t156;
        const V t164 = t163 - t162;
        const V t165 = c[8] * t129;
        const V t166 = c[9] * t126;
        const V t167 = t165 - t166;
        const V t168 = c[8] * t126;
        const V t169 = c[9] * t129;
        const V t170 = t169 + t168;
        const V t171 = c[10] * t149;
        const V t172 = c[11] * t146;
        const V t173 = t171 - t172;
        const V t174 = c[10] * t146;
        const V t175 = c[11] * t149;
        const V t176 = t175 + t174;
        const V t177 = c[12] * t136;
        const V t178 = c[13] * t133;
        const V t179 = t178 - t177;
        const V t180 = c[12] * t133;
        const V t181 = c[13] * t136;
        const V t182 = t181 + t180;
        const V t183 = c[15] * t142;
        // spectrum block of 2
        const V t184 = t158 - t183;
        const V t185 = t158 + t183;
        // complex block of 2
        const V t186 = t170 + t176;
        const V t187 = t167 + t173;
        const V t188 = t176 - t170;
        const V t189 = t167 - t173;
        // complex block of 2
        const V t190 = t182 + t164;
        const V t191 = t179 - t161;
        const V t192 = t164 - t182;
        const V t193 = t179 + t161;
        // spectrum block of 5, multiplier 2
        const V t194 = t187 + t191;
        const V t195 = t194 + t184;
        io.out(3, t195);
        const V t196 = c[0] * t187;
        const V t197 = c[1] * t191;
        const V t198 = t196 - t197;
        const V t199 = t198 + t184;
        const V t200 = c[2] * t186;
        const V t201 = c[3] * t190;
        const V t202 = t200 + t201;
        const V t203 = t199 + t202;
        io.out(15, t203);
        const V t204 = t199 - t202;
        io.out(27, t204);
        const V t205 = c[1] * t187;
        const V t206 = t184 - t205;
        const V t207 = c[0] * t191;
        const V t208 = t206 + t207;
        const V t209 = c[3] * t186;
        const V t210 = c[2] * t190;
        const V t211 = t210 - t209;
        const V t212 = t208 - t211;
        io.out(9, t212);
        const V t213 = t208 + t211;
        io.out(12, t213);
        // spectrum block of 5, multiplier 2
        const V t214 = t189 + t193;
        const V t215 = t214 + t185;
        io.out(30, t215);
        const V t216 = c[0] * t189;
        const V t217 = c[1] * t193;
        const V t218 = t216 - t217;
        const V t219 = t218 + t185;
        const V t220 = c[2] * t188;
        const V t221 = c[3] * t192;
        const V t222 = t220 + t221;
        const V t223 = t219 - t222;
        io.out(18, t223);
        const V t224 = t219 + t222;
        io.out(6, t224);
        const V t225 = c[1] * t189;
        const V t226 = t185 - t225;
        const V t227 = c[0] * t193;
        const V t228 = t226 + t227;
        const V t229 = c[3] * t188;
        const V t230 = c[2] * t192;
        const V t231 = t229 - t230;
        const V t232 = t228 - t231;
        io.out(24, t232);
        const V t233 = t228 + t231;
        io.out(21, t233);
        // spectrum block of 11, multiplier 3
        const V t234 = t31 + t122;
        io.out(0, t234);
        // real block of 5
        const V t235 = t68 + t116;
        const V t236 = t68 - t116;
        const V t237 = t84 + t100;
        const V t238 = t84 - t100;
        const V t239 = t235 + t237;
        const V t240 = t239 + t52;
        const V t241 = c[0] * t235;
        const V t242 = c[1] * t237;
        const V t243 = t241 - t242;
        const V t244 = t243 + t52;
        const V t245 = c[2] * t236;
        const V t246 = c[3] * t238;
        const V t247 = t246 - t245;
        const V t248 = c[1] * t235;
        const V t249 = t52 - t248;
        const V t250 = c[0] * t237;
        const V t251 = t249 + t250;
        const V t252 = c[3] * t236;
        const V t253 = c[2] * t238;
        const V t254 = t252 + t253;
        // real block of 5
        const V t255 = t115 - t67;
        const V t256 = t67 + t115;
        const V t257 = t83 + t99;
        const V t258 = t83 - t99;
        const V t259 = t255 + t257;
        const V t260 = t259 + t51;
        const V t261 = c[0] * t255;
        const V t262 = c[1] * t257;
        const V t263 = t261 - t262;
        const V t264 = t263 + t51;
        const V t265 = c[2] * t256;
        const V t266 = c[3] * t258;
        const V t267 = t265 + t266;
        const V t268 = c[1] * t255;
        const V t269 = t51 - t268;
        const V t270 = c[0] * t257;
        const V t271 = t269 + t270;
        const V t272 = c[3] * t256;
        const V t273 = c[2] * t258;
        const V t274 = t272 - t273;
        // spectrum block of 11, multiplier 3
        const V t275 = c[14] * t240;
        const V t276 = t36 - t275;
        const V t277 = c[6] * t274;
        const V t278 = c[7] * t271;
        const V t279 = t278 + t277;
        const V t280 = c[6] * t271;
        const V t281 = c[7] * t274;
        const V t282 = t281 - t280;
        const V t283 = c[8] * t247;
        const V t284 = c[9] * t244;
        const V t285 = t283 - t284;
        const V t286 = c[8] * t244;
        const V t287 = c[9] * t247;
        const V t288 = t287 + t286;
        const V t289 = c[10] * t267;
        const V t290 = c[11] * t264;
        const V t291 = t289 - t290;
        const V t292 = c[10] * t264;
        const V t293 = c[11] * t267;
        const V t294 = t293 + t292;
        const V t295 = c[12] * t254;
        const V t296 = c[13] * t251;
        const V t297 = t296 - t295;
        const V t298 = c[12] * t251;
        const V t299 = c[13] * t254;
        const V t300 = t299 + t298;
        const V t301 = c[15] * t260;
        // spectrum block of 2
        const V t302 = t276 - t301;
        const V t303 = t276 + t301;
        // complex block of 2
        const V t304 = t288 + t294;
        const V t305 = t285 + t291;
        const V t306 = t294 - t288;
        const V t307 = t285 - t291;
        // complex block of 2
        const V t308 = t300 + t282;
        const V t309 = t297 - t279;
        const V t310 = t282 - t300;
        const V t311 = t297 + t279;
        // spectrum block of 5, multiplier 2
        const V t312 = t305 + t309;
        const V t313 = t312 + t302;
        io.out(14, t313);
        const V t314 = c[0] * t305;
        const V t315 = c[1] * t309;
        const V t316 = t314 - t315;
        const V t317 = t316 + t302;
        const V t318 = c[2] * t304;
        const V t319 = c[3] * t308;
        const V t320 = t318 + t319;
        const V t321 = t317 + t320;
        io.out(26, t321);
        const V t322 = t317 - t320;
        io.out(5, t322);
        const V t323 = c[1] * t305;
        const V t324 = t302 - t323;
        const V t325 = c[0] * t309;
        const V t326 = t324 + t325;
        const V t327 = c[3] * t304;
        const V t328 = c[2] * t308;
        const V t329 = t328 - t327;
        const V t330 = t326 - t329;
        io.out(20, t330);
        const V t331 = t326 + t329;
        io.out(23, t331);
        // spectrum block of 5, multiplier 2
        const V t332 = t307 + t311;
        const V t333 = t332 + t303;
        io.out(8, t333);
        const V t334 = c[0] * t307;
        const V t335 = c[1] * t311;
        const V t336 = t334 - t335;
        const V t337 = t336 + t303;
        const V t338 = c[2] * t306;
        const V t339 = c[3] * t310;
        const V t340 = t338 + t339;
        const V t341 = t337 - t340;
        io.out(29, t341);
        const V t342 = t337 + t340;
        io.out(17, t342);
        const V t343 = c[1] * t307;
        const V t344 = t303 - t343;
        const V t345 = c[0] * t311;
        const V t346 = t344 + t345;
        const V t347 = c[3] * t306;
        const V t348 = c[2] * t310;
        const V t349 = t347 - t348;
        const V t350 = t346 - t349;
        io.out(2, t350);
        const V t351 = t346 + t349;
        io.out(32, t351);
        // spectrum block of 11, multiplier 3
        const V t352 = t36 + t240;
        io.out(11, t352);
        // real block of 5
        const V t353 = t66 + t114;
        const V t354 = t66 - t114;
        const V t355 = t82 + t98;
        const V t356 = t82 - t98;
        const V t357 = t353 + t355;
        const V t358 = t357 + t50;
        const V t359 = c[0] * t353;
        const V t360 = c[1] * t355;
        const V t361 = t359 - t360;
        const V t362 = t361 + t50;
        const V t363 = c[2] * t354;
        const V t364 = c[3] * t356;
        const V t365 = t364 - t363;
        const V t366 = c[1] * t353;
        const V t367 = t50 - t366;
        const V t368 = c[0] * t355;
        const V t369 = t367 + t368;
        const V t370 = c[3] * t354;
        const V t371 = c[2] * t356;
        const V t372 = t370 + t371;
        // real block of 5
        const V t373 = t113 - t65;
        const V t374 = t65 + t113;
        const V t375 = t81 + t97;
        const V t376 = t81 - t97;
        const V t377 = t373 + t375;
        const V t378 = t377 + t49;
        const V t379 = c[0] * t373;
        const V t380 = c[1] * t375;
        const V t381 = t379 - t380;
        const V t382 = t381 + t49;
        const V t383 = c[2] * t374;
        const V t384 = c[3] * t376;
        const V t385 = t383 + t384;
        const V t386 = c[1] * t373;
        const V t387 = t49 - t386;
        const V t388 = c[0] * t375;
        const V t389 = t387 + t388;
        const V t390 = c[3] * t374;
        const V t391 = c[2] * t376;
        const V t392 = t390 - t391;
        // spectrum block of 11, multiplier 3
        const V t393 = c[14] * t358;
        const V t394 = t35 - t393;
        const V t395 = c[6] * t392;
        const V t396 = c[7] * t389;
        const V t397 = t396 + t395;
        const V t398 = c[6] * t389;
        const V t399 = c[7] * t392;
        const V t400 = t399 - t398;
        const V t401 = c[8] * t365;
        const V t402 = c[9] * t362;
        const V t403 = t401 - t402;
        const V t404 = c[8] * t362;
        const V t405 = c[9] * t365;
        const V t406 = t405 + t404;
        const V t407 = c[10] * t385;
        const V t408 = c[11] * t382;
        const V t409 = t407 - t408;
        const V t410 = c[10] * t382;
        const V t411 = c[11] * t385;
        const V t412 = t411 + t410;
        const V t413 = c[12] * t372;
        const V t414 = c[13] * t369;
        const V t415 = t414 - t413;
        const V t416 = c[12] * t369;
        const V t417 = c[13] * t372;
        const V t418 = t417 + t416;
        const V t419 = c[15] * t378;
        // spectrum block of 2
        const V t420 = t394 - t419;
        const V t421 = t394 + t419;
        // complex block of 2
        const V t422 = t406 + t412;
        const V t423 = t403 + t409;
        const V t424 = t412 - t406;
        const V t425 = t403 - t409;
        // complex block of 2
        const V t426 = t418 + t400;
        const V t427 = t415 - t397;
        const V t428 = t400 - t418;
        const V t429 = t415 + t397;
        // spectrum block of 5, multiplier 2
        const V t430 = t423 + t427;
        const V t431 = t430 + t420;
        io.out(25, t431);
        const V t432 = c[0] * t423;
        const V t433 = c[1] * t427;
        const V t434 = t432 - t433;
        const V t435 = t434 + t420;
        const V t436 = c[2] * t422;
        const V t437 = c[3] * t426;
        const V t438 = t436 + t437;
        const V t439 = t435 + t438;
        io.out(4, t439);
        const V t440 = t435 - t438;
        io.out(16, t440);
        const V t441 = c[1] * t423;
        const V t442 = t420 - t441;
        const V t443 = c[0] * t427;
        const V t444 = t442 + t443;
        const V t445 = c[3] * t422;
        const V t446 = c[2] * t426;
        const V t447 = t446 - t445;
        const V t448 = t444 - t447;
        io.out(31, t448);
        const V t449 = t444 + t447;
        io.out(1, t449);
        // spectrum block of 5, multiplier 2
        const V t450 = t425 + t429;
        const V t451 = t450 + t421;
        io.out(19, t451);
        const V t452 = c[0] * t425;
        const V t453 = c[1] * t429;
        const V t454 = t452 - t453;
        const V t455 = t454 + t421;
        const V t456 = c[2] * t424;
        const V t457 = c[3] * t428;
        const V t458 = t456 + t457;
        const V t459 = t455 - t458;
        io.out(7, t459);
        const V t460 = t455 + t458;
        io.out(28, t460);
        const V t461 = c[1] * t425;
        const V t462 = t421 - t461;
        const V t463 = c[0] * t429;
        const V t464 = t462 + t463;
        const V t465 = c[3] * t424;
        const V t466 = c[2] * t428;
        const V t467 = t465 - t466;
        const V t468 = t464 - t467;
        io.out(13, t468);
        const V t469 = t464 + t467;
        io.out(10, t469);
        // spectrum block of 11, multiplier 3
        const V t470 = t35 + t358;
        io.out(22, t470);
    }
};

}  // namespace zulg
