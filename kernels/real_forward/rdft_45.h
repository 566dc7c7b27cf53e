// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 45.
// Forward DFT of 45 real points, prime-factor 5, 9.
// 159 additions, 141 subtractions, 172 multiplications (217 with `scale`); 11 outputs negated; 12 constants; 49 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<45> {
    static constexpr int steps = 517;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.30901699437494745,  // c[2]: cos 2 pi 4/5
        0.8090169943749475,  // c[3]: -cos 2 pi 12/5
        0.9510565162951535,  // c[4]: -sin 2 pi 4/5
        0.5877852522924731,  // c[5]: sin 2 pi 12/5
        0.6427876096865394,  // c[6]: sin 2 pi 1/9
        0.766044443118978,  // c[7]: cos 2 pi 1/9
        0.3420201433256687,  // c[8]: -sin 2 pi 5/9
        0.9396926207859084,  // c[9]: -cos 2 pi 5/9
        0.984807753012208,  // c[10]: sin 2 pi 2/9
        0.17364817766693036,  // c[11]: cos 2 pi 2/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 5, multiplier 4
        const V x9 = io.in(9);
        const V x36 = io.in(36);
        const V t0 = x9 + x36;
        const V t1 = x9 - x36;
        const V x27 = io.in(27);
        const V x18 = io.in(18);
        const V t2 = x27 + x18;
        const V t3 = x27 - x18;
        const V t4 = t0 + t2;
        const V x0 = io.in(0);
        const V t5 = t4 + x0;
        const V t6 = c[2] * t0;
        const V t7 = c[3] * t2;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0;
        const V t10 = c[4] * t1;
        const V t11 = c[5] * t3;
        const V t12 = t10 - t11;
        const V t13 = c[3] * t0;
        const V t14 = x0 - t13;
        const V t15 = c[2] * t2;
        const V t16 = t14 + t15;
        const V t17 = c[5] * t1;
        const V t18 = c[4] * t3;
        const V t19 = t17 + t18;
        // real block of 5, multiplier 4
        const V x14 = io.in(14);
        const V x41 = io.in(41);
        const V t20 = x14 + x41;
        const V t21 = x14 - x41;
        const V x32 = io.in(32);
        const V x23 = io.in(23);
        const V t22 = x32 + x23;
        const V t23 = x32 - x23;
        const V t24 = t20 + t22;
        const V x5 = io.in(5);
        const V t25 = t24 + x5;
        const V t26 = c[2] * t20;
        const V t27 = c[3] * t22;
        const V t28 = t26 - t27;
        const V t29 = t28 + x5;
        const V t30 = c[4] * t21;
        const V t31 = c[5] * t23;
        const V t32 = t30 - t31;
        const V t33 = c[3] * t20;
        const V t34 = x5 - t33;
        const V t35 = c[2] * t22;
        const V t36 = t34 + t35;
        const V t37 = c[5] * t21;
        const V t38 = c[4] * t23;
        const V t39 = t37 + t38;
        // real block of 5, multiplier 4
        const V x19 = io.in(19);
        const V x1 = io.in(1);
        const V t40 = x19 + x1;
        const V t41 = x19 - x1;
        const V x37 = io.in(37);
        const V x28 = io.in(28);
        const V t42 = x37 + x28;
        const V t43 = x37 - x28;
        const V t44 = t40 + t42;
        const V x10 = io.in(10);
        const V t45 = t44 + x10;
        const V t46 = c[2] * t40;
        const V t47 = c[3] * t42;
        const V t48 = t46 - t47;
        const V t49 = t48 + x10;
        const V t50 = c[4] * t41;
        const V t51 = c[5] * t43;
        const V t52 = t50 - t51;
        const V t53 = c[3] * t40;
        const V t54 = x10 - t53;
        const V t55 = c[2] * t42;
        const V t56 = t54 + t55;
        const V t57 = c[5] * t41;
        const V t58 = c[4] * t43;
        const V t59 = t57 + t58;
        // real block of 5, multiplier 4
        const V x24 = io.in(24);
        const V x6 = io.in(6);
        const V t60 = x24 + x6;
        const V t61 = x24 - x6;
        const V x42 = io.in(42);
        const V x33 = io.in(33);
        const V t62 = x42 + x33;
        const V t63 = x42 - x33;
        const V t64 = t60 + t62;
        const V x15 = io.in(15);
        const V t65 = t64 + x15;
        const V t66 = c[2] * t60;
        const V t67 = c[3] * t62;
        const V t68 = t66 - t67;
        const V t69 = t68 + x15;
        const V t70 = c[4] * t61;
        const V t71 = c[5] * t63;
        const V t72 = t70 - t71;
        const V t73 = c[3] * t60;
        const V t74 = x15 - t73;
        const V t75 = c[2] * t62;
        const V t76 = t74 + t75;
        const V t77 = c[5] * t61;
        const V t78 = c[4] * t63;
        const V t79 = t77 + t78;
        // real block of 5, multiplier 4
        const V x29 = io.in(29);
        const V x11 = io.in(11);
        const V t80 = x29 + x11;
        const V t81 = x29 - x11;
        const V x2 = io.in(2);
        const V x38 = io.in(38);
        const V t82 = x2 + x38;
        const V t83 = x2 - x38;
        const V t84 = t80 + t82;
        const V x20 = io.in(20);
        const V t85 = t84 + x20;
        const V t86 = c[2] * t80;
        const V t87 = c[3] * t82;
        const V t88 = t86 - t87;
        const V t89 = t88 + x20;
        const V t90 = c[4] * t81;
        const V t91 = c[5] * t83;
        const V t92 = t90 - t91;
        const V t93 = c[3] * t80;
        const V t94 = x20 - t93;
        const V t95 = c[2] * t82;
        const V t96 = t94 + t95;
        const V t97 = c[5] * t81;
        const V t98 = c[4] * t83;
        const V t99 = t97 + t98;
        // real block of 5, multiplier 4
        const V x34 = io.in(34);
        const V x16 = io.in(16);
        const V t100 = x34 + x16;
        const V t101 = x34 - x16;
        const V x7 = io.in(7);
        const V x43 = io.in(43);
        const V t102 = x7 + x43;
        const V t103 = x7 - x43;
        const V t104 = t100 + t102;
        const V x25 = io.in(25);
        const V t105 = t104 + x25;
        const V t106 = c[2] * t100;
        const V t107 = c[3] * t102;
        const V t108 = t106 - t107;
        const V t109 = t108 + x25;
        const V t110 = c[4] * t101;
        const V t111 = c[5] * t103;
        const V t112 = t110 - t111;
        const V t113 = c[3] * t100;
        const V t114 = x25 - t113;
        const V t115 = c[2] * t102;
        const V t116 = t114 + t115;
        const V t117 = c[5] * t101;
        const V t118 = c[4] * t103;
        const V t119 = t117 + t118;
        // real block of 5, multiplier 4
        const V x39 = io.in(39);
        const V x21 = io.in(21);
        const V t120 = x39 + x21;
        const V t121 = x39 - x21;
        const V x12 = io.in(12);
        const V x3 = io.in(3);
        const V t122 = x12 + x3;
        const V t123 = x12 - x3;
        const V t124 = t120 + t122;
        const V x30 = io.in(30);
        const V t125 = t124 + x30;
        const V t126 = c[2] * t120;
        const V t127 = c[3] * t122;
        const V t128 = t126 - t127;
        const V t129 = t128 + x30;
        const V t130 = c[4] * t121;
        const V t131 = c[5] * t123;
        const V t132 = t130 - t131;
        const V t133 = c[3] * t120;
        const V t134 = x30 - t133;
        const V t135 = c[2] * t122;
        const V t136 = t134 + t135;
        const V t137 = c[5] * t121;
        const V t138 = c[4] * t123;
        const V t139 = t137 + t138;
        // real block of 5, multiplier 4
        const V x44 = io.in(44);
        const V x26 = io.in(26);
        const V t140 = x44 + x26;
        const V t141 = x44 - x26;
        const V x17 = io.in(17);
        const V x8 = io.in(8);
        const V t142 = x17 + x8;
        const V t143 = x17 - x8;
        const V t144 = t140 + t142;
        const V x35 = io.in(35);
        const V t145 = t144 + x35;
        const V t146 = c[2] * t140;
        const V t147 = c[3] * t142;
        const V t148 = t146 - t147;
        const V t149 = t148 + x35;
        const V t150 = c[4] * t141;
        const V t151 = c[5] * t143;
        const V t152 = t150 - t151;
        const V t153 = c[3] * t140;
        const V t154 = x35 - t153;
        const V t155 = c[2] * t142;
        const V t156 = t154 + t155;
        const V t157 = c[5] * t141;
        const V t158 = c[4] * t143;
        const V t159 = t157 + t158;
        // real block of 5, multiplier 4
        const V x4 = io.in(4);
        const V x31 = io.in(31);
        const V t160 = x4 + x31;
        const V t161 = x4 - x31;
        const V x22 = io.in(22);
        const V x13 = io.in(13);
        const V t162 = x22 + x13;
        const V t163 = x22 - x13;
        const V t164 = t160 + t162;
        const V x40 = io.in(40);
        const V t165 = t164 + x40;
        const V t166 = c[2] * t160;
        const V t167 = c[3] * t162;
        const V t168 = t166 - t167;
        const V t169 = t168 + x40;
        const V t170 = c[4] * t161;
        const V t171 = c[5] * t163;
        const V t172 = t170 - t171;
        const V t173 = c[3] * t160;
        const V t174 = x40 - t173;
        const V t175 = c[2] * t162;
        const V t176 = t174 + t175;
        const V t177 = c[5] * t161;
        const V t178 = c[4] * t163;
        const V t179 = t177 + t178;
        // real block of 3, multiplier 2
        const V t180 = t65 + t125;
        const V t181 = t65 - t125;
        const V t182 = t180 + t5;
        const V t183 = c[0] * t180;
        const V t184 = t5 - t183;
        const V t185 = c[1] * t181;
        // real block of 3, multiplier 2
        const V t186 = t85 + t145;
        const V t187 = t85 - t145;
        const V t188 = t186 + t25;
        const V t189 = c[0] * t186;
        const V t190 = t25 - t189;
        const V t191 = c[1] * t187;
        // real block of 3, multiplier 2
        const V t192 = t105 + t165;
        const V t193 = t105 - t165;
        const V t194 = t192 + t45;
        const V t195 = c[0] * t192;
        const V t196 = t45 - t195;
        const V t197 = c[1] * t193;
        // real block of 3, multiplier 2
        const V t198 = t188 + t194;
        const V t199 = t188 - t194;
        const V t200 = t198 + t182;
        io.re(0, t200);
        const V t201 = c[0] * t198;
        const V t202 = t182 - t201;
        io.re(15, t202);
        const V t203 = c[1] * t199;
        io.im(15, t203);
        // real block of 9, multiplier 5
        const V t204 = c[8] * t191;
        const V t205 = c[9] * t190;
        const V t206 = t205 + t204;
        const V t207 = c[8] * t190;
        const V t208 = c[9] * t191;
        const V t209 = t207 - t208;
        const V t210 = c[6] * t197;
        const V t211 = c[7] * t196;
        const V t212 = t211 + t210;
        const V t213 = c[6] * t196;
        const V t214 = c[7] * t197;
        const V t215 = t214 - t213;
        // complex block of 3, multiplier 2
        const V t216 = t212 - t206;
        const V t217 = t209 + t215;
        const V t218 = t206 + t212;
        const V t219 = t209 - t215;
        const V t220 = t216 + t184;
        io.re(5, t220);
        const V t221 = t217 + t185;
        io.im(5, t221);
        const V t222 = c[0] * t216;
        const V t223 = t184 - t222;
        const V t224 = c[0] * t217;
        const V t225 = t185 - t224;
        const V t226 = c[1] * t218;
        const V t227 = c[1] * t219;
        const V t228 = t223 + t227;
        io.re(10, t228);
        const V t229 = t225 + t226;
        io.minusIm(10, t229);
        const V t230 = t223 - t227;
        io.re(20, t230);
        const V t231 = t225 - t226;
        io.im(20, t231);
        // complex block of 3, multiplier 2
        const V t232 = t69 + t129;
        const V t233 = t72 + t132;
        const V t234 = t69 - t129;
        const V t235 = t72 - t132;
        const V t236 = t232 + t9;
        const V t237 = t233 + t12;
        const V t238 = c[0] * t232;
        const V t239 = t9 - t238;
        const V t240 = c[0] * t233;
        const V t241 = t12 - t240;
        const V t242 = c[1] * t234;
        const V t243 = c[1] * t235;
        const V t244 = t239 + t243;
        const V t245 = t241 - t242;
        const V t246 = t239 - t243;
        const V t247 = t241 + t242;
        // complex block of 3, multiplier 2
        const V t248 = t89 + t149;
        const V t249 = t92 + t152;
        const V t250 = t89 - t149;
        const V t251 = t92 - t152;
        const V t252 = t248 + t29;
        const V t253 = t249 + t32;
        const V t254 = c[0] * t248;
        const V t255 = t29 - t254;
        const V t256 = c[0] * t249;
        const V t257 = t32 - t256;
        const V t258 = c[1] * t250;
        const V t259 = c[1] * t251;
        const V t260 = t255 + t259;
        const V t261 = t257 - t258;
        const V t262 = t255 - t259;
        const V t263 = t257 + t258;
        // complex block of 3, multiplier 2
        const V t264 = t109 + t169;
        const V t265 = t112 + t172;
        const V t266 = t109 - t169;
        const V t267 = t112 - t172;
        const V t268 = t264 + t49;
        const V t269 = t265 + t52;
        const V t270 = c[0] * t264;
        const V t271 = t49 - t270;
        const V t272 = c[0] * t265;
        const V t273 = t52 - t272;
        const V t274 = c[1] * t266;
        const V t275 = c[1] * t267;
        const V t276 = t271 + t275;
        const V t277 = t273 - t274;
        const V t278 = t271 - t275;
        const V t279 = t273 + t274;
        // complex block of 3, multiplier 2
        const V t280 = t252 + t268;
        const V t281 = t253 + t269;
        const V t282 = t252 - t268;
        const V t283 = t253 - t269;
        const V t284 = t280 + t236;
        io.re(9, t284);
        const V t285 = t281 + t237;
        io.im(9, t285);
        const V t286 = c[0] * t280;
        const V t287 = t236 - t286;
        const V t288 = c[0] * t281;
        const V t289 = t237 - t288;
        const V t290 = c[1] * t282;
        const V t291 = c[1] * t283;
        const V t292 = t287 + t291;
        io.re(6, t292);
        const V t293 = t289 - t290;
        io.minusIm(6, t293);
        const V t294 = t287 - t291;
        io.re(21, t294);
        const V t295 = t289 + t290;
        io.minusIm(21, t295);
        // complex block of 9, multiplier 5
        const V t296 = c[8] * t263;
        const V t297 = c[9] * t262;
        const V t298 = t297 + t296;
        const V t299 = c[8] * t262;
        const V t300 = c[9] * t263;
        const V t301 = t299 - t300;
        const V t302 = c[6] * t279;
        const V t303 = c[7] * t278;
        const V t304 = t303 + t302;
        const V t305 = c[6] * t278;
        const V t306 = c[7] * t279;
        const V t307 = t306 - t305;
        // complex block of 3, multiplier 2
        const V t308 = t304 - t298;
        const V t309 = t301 + t307;
        const V t310 = t298 + t304;
        const V t311 = t301 - t307;
        const V t312 = t308 + t246;
        io.re(14, t312);
        const V t313 = t309 + t247;
        io.im(14, t313);
        const V t314 = c[0] * t308;
        const V t315 = t246 - t314;
        const V t316 = c[0] * t309;
        const V t317 = t247 - t316;
        const V t318 = c[1] * t310;
        const V t319 = c[1] * t311;
        const V t320 = t315 + t319;
        io.re(1, t320);
        const V t321 = t317 + t318;
        io.minusIm(1, t321);
        const V t322 = t315 - t319;
        io.re(16, t322);
        const V t323 = t317 - t318;
        io.minusIm(16, t323);
        // complex block of 9, multiplier 5
        const V t324 = c[6] * t261;
        const V t325 = c[7] * t260;
        const V t326 = t325 + t324;
        const V t327 = c[6] * t260;
        const V t328 = c[7] * t261;
        const V t329 = t328 - t327;
        const V t330 = c[10] * t277;
        const V t331 = c[11] * t276;
        const V t332 = t331 + t330;
        const V t333 = c[10] * t276;
        const V t334 = c[11] * t277;
        const V t335 = t334 - t333;
        // complex block of 3, multiplier 2
        const V t336 = t326 + t332;
        const V t337 = t329 + t335;
        const V t338 = t326 - t332;
        const V t339 = t329 - t335;
        const V t340 = t336 + t244;
        io.re(19, t340);
        const V t341 = t337 + t245;
        io.im(19, t341);
        const V t342 = c[0] * t336;
        const V t343 = t244 - t342;
        const V t344 = c[0] * t337;
        const V t345 = t245 - t344;
        const V t346 = c[1] * t338;
        const V t347 = c[1] * t339;
        const V t348 = t343 + t347;
        io.re(4, t348);
        const V t349 = t345 - t346;
        io.im(4, t349);
        const V t350 = t343 - t347;
        io.re(11, t350);
        const V t351 = t345 + t346;
        io.minusIm(11, t351);
        // complex block of 3, multiplier 2
        const V t352 = t76 + t136;
        const V t353 = t79 + t139;
        const V t354 = t76 - t136;
        const V t355 = t79 - t139;
        const V t356 = t352 + t16;
        const V t357 = t353 + t19;
        const V t358 = c[0] * t352;
        const V t359 = t16 - t358;
        const V t360 = c[0] * t353;
        const V t361 = t19 - t360;
        const V t362 = c[1] * t354;
        const V t363 = c[1] * t355;
        const V t364 = t359 + t363;
        const V t365 = t361 - t362;
        const V t366 = t359 - t363;
        const V t367 = t361 + t362;
        // complex block of 3, multiplier 2
        const V t368 = t96 + t156;
        const V t369 = t99 + t159;
        const V t370 = t96 - t156;
        const V t371 = t99 - t159;
        const V t372 = t368 + t36;
        const V t373 = t369 + t39;
        const V t374 = c[0] * t368;
        const V t375 = t36 - t374;
        const V t376 = c[0] * t369;
        const V t377 = t39 - t376;
        const V t378 = c[1] * t370;
        const V t379 = c[1] * t371;
        const V t380 = t375 + t379;
        const V t381 = t377 - t378;
        const V t382 = t375 - t379;
        const V t383 = t377 + t378;
        // complex block of 3, multiplier 2
        const V t384 = t116 + t176;
        const V t385 = t119 + t179;
        const V t386 = t116 - t176;
        const V t387 = t119 - t179;
        const V t388 = t384 + t56;
        const V t389 = t385 + t59;
        const V t390 = c[0] * t384;
        const V t391 = t56 - t390;
        const V t392 = c[0] * t385;
        const V t393 = t59 - t392;
        const V t394 = c[1] * t386;
        const V t395 = c[1] * t387;
        const V t396 = t391 + t395;
        const V t397 = t393 - t394;
        const V t398 = t391 - t395;
        const V t399 = t393 + t394;
        // complex block of 3, multiplier 2
        const V t400 = t372 + t388;
        const V t401 = t373 + t389;
        const V t402 = t372 - t388;
        const V t403 = t373 - t389;
        const V t404 = t400 + t356;
        io.re(18, t404);
        const V t405 = t401 + t357;
        io.im(18, t405);
        const V t406 = c[0] * t400;
        const V t407 = t356 - t406;
        const V t408 = c[0] * t401;
        const V t409 = t357 - t408;
        const V t410 = c[1] * t402;
        const V t411 = c[1] * t403;
        const V t412 = t407 + t411;
        io.re(3, t412);
        const V t413 = t409 - t410;
        io.im(3, t413);
        const V t414 = t407 - t411;
        io.re(12, t414);
        const V t415 = t409 + t410;
        io.minusIm(12, t415);
        // complex block of 9, multiplier 5
        const V t416 = c[8] * t383;
        const V t417 = c[9] * t382;
        const V t418 = t417 + t416;
        const V t419 = c[8] * t382;
        const V t420 = c[9] * t383;
        const V t421 = t419 - t420;
        const V t422 = c[6] * t399;
        const V t423 = c[7] * t398;
        const V t424 = t423 + t422;
        const V t425 = c[6] * t398;
        const V t426 = c[7] * t399;
        const V t427 = t426 - t425;
        // complex block of 3, multiplier 2
        const V t428 = t424 - t418;
        const V t429 = t421 + t427;
        const V t430 = t418 + t424;
        const V t431 = t421 - t427;
        const V t432 = t428 + t366;
        io.re(22, t432);
        const V t433 = t429 + t367;
        io.minusIm(22, t433);
        const V t434 = c[0] * t428;
        const V t435 = t366 - t434;
        const V t436 = c[0] * t429;
        const V t437 = t367 - t436;
        const V t438 = c[1] * t430;
        const V t439 = c[1] * t431;
        const V t440 = t435 + t439;
        io.re(8, t440);
        const V t441 = t437 + t438;
        io.im(8, t441);
        const V t442 = t435 - t439;
        io.re(7, t442);
        const V t443 = t437 - t438;
        io.minusIm(7, t443);
        // complex block of 9, multiplier 5
        const V t444 = c[6] * t381;
        const V t445 = c[7] * t380;
        const V t446 = t445 + t444;
        const V t447 = c[6] * t380;
        const V t448 = c[7] * t381;
        const V t449 = t448 - t447;
        const V t450 = c[10] * t397;
        const V t451 = c[11] * t396;
        const V t452 = t451 + t450;
        const V t453 = c[10] * t396;
        const V t454 = c[11] * t397;
        const V t455 = t454 - t453;
        // complex block of 3, multiplier 2
        const V t456 = t446 + t452;
        const V t457 = t449 + t455;
        const V t458 = t446 - t452;
        const V t459 = t449 - t455;
        const V t460 = t456 + t364;
        io.re(17, t460);
        const V t461 = t457 + t365;
        io.minusIm(17, t461);
        const V t462 = c[0] * t456;
        const V t463 = t364 - t462;
        const V t464 = c[0] * t457;
        const V t465 = t365 - t464;
        const V t466 = c[1] * t458;
        const V t467 = c[1] * t459;
        const V t468 = t463 + t467;
        io.re(13, t468);
        const V t469 = t465 - t466;
        io.im(13, t469);
        const V t470 = t463 - t467;
        io.re(2, t470);
        const V t471 = t465 + t466;
        io.minusIm(2, t471);
    }
};

}  // namespace zulg
