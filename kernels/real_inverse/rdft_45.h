// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 45.
// Inverse DFT to 45 real points, prime-factor 5, 9.
// 156 additions, 144 subtractions, 206 multiplications (251 with `scale`); 15 constants; 53 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<45> {
    static constexpr int steps = 551;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.30901699437494745,  // c[2]: cos 2 pi 1/5
        0.8090169943749475,  // c[3]: -cos 2 pi 2/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5877852522924731,  // c[5]: sin 2 pi 2/5
        0.3420201433256687,  // c[6]: sin 2 pi 4/9
        0.9396926207859084,  // c[7]: -cos 2 pi 4/9
        0.6427876096865394,  // c[8]: -sin 2 pi 8/9
        0.766044443118978,  // c[9]: cos 2 pi 8/9
        0.8137976813493737,  // c[10]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[11]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.6634139481689384,  // c[12]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[13]: sin 2 pi 1/3 times -sin 2 pi 8/9
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
        const V x11i = io.im(11);
        const V t21 = two * x11i;
        const V x12r = io.re(12);
        const V t22 = two * x12r;
        const V x12i = io.im(12);
        const V t23 = two * x12i;
        const V x13r = io.re(13);
        const V t24 = two * x13r;
        const V x13i = io.im(13);
        const V t25 = two * x13i;
        const V x14r = io.re(14);
        const V t26 = two * x14r;
        const V x14i = io.im(14);
        const V t27 = two * x14i;
        const V x15r = io.re(15);
        const V t28 = two * x15r;
        const V x15i = io.im(15);
        const V t29 = two * x15i;
        const V x16r = io.re(16);
        const V t30 = two * x16r;
        const V x16i = io.im(16);
        const V t31 = two * x16i;
        const V x17r = io.re(17);
        const V t32 = two * x17r;
        const V x17i = io.im(17);
        const V t33 = two * x17i;
        const V x18r = io.re(18);
        const V t34 = two * x18r;
        const V x18i = io.im(18);
        const V t35 = two * x18i;
        const V x19r = io.re(19);
        const V t36 = two * x19r;
        const V x19i = io.im(19);
        const V t37 = two * x19i;
        const V x20r = io.re(20);
        const V t38 = two * x20r;
        const V x20i = io.im(20);
        const V t39 = two * x20i;
        const V x21r = io.re(21);
        const V t40 = two * x21r;
        const V x21i = io.im(21);
        const V t41 = two * x21i;
        const V x22r = io.re(22);
        const V t42 = two * x22r;
        const V x22i = io.im(22);
        const V t43 = two * x22i;
        // spectrum block of 5, multiplier 4
        const V t44 = t16 + t34;
        const V x0r = io.re(0);
        const V t45 = t44 + x0r;
        const V t46 = c[2] * t16;
        const V t47 = c[3] * t34;
        const V t48 = t46 - t47;
        const V t49 = t48 + x0r;
        const V t50 = c[4] * t17;
        const V t51 = c[5] * t35;
        const V t52 = t50 + t51;
        const V t53 = t49 - t52;
        const V t54 = t49 + t52;
        const V t55 = c[3] * t16;
        const V t56 = x0r - t55;
        const V t57 = c[2] * t34;
        const V t58 = t56 + t57;
        const V t59 = c[5] * t17;
        const V t60 = c[4] * t35;
        const V t61 = t59 - t60;
        const V t62 = t58 - t61;
        const V t63 = t58 + t61;
        // complex block of 5, multiplier 4
        const V t64 = t27 - t7;
        const V t65 = t26 + t6;
        const V t66 = t27 + t7;
        const V t67 = t26 - t6;
        const V t68 = t25 + t43;
        const V t69 = t24 + t42;
        const V t70 = t43 - t25;
        const V t71 = t24 - t42;
        const V t72 = t64 - t68;
        const V t73 = t65 + t69;
        const V t74 = t72 + t9;
        const V t75 = t73 + t8;
        const V t76 = c[2] * t64;
        const V t77 = c[3] * t68;
        const V t78 = t76 + t77;
        const V t79 = t78 + t9;
        const V t80 = c[2] * t65;
        const V t81 = c[3] * t69;
        const V t82 = t80 - t81;
        const V t83 = t82 + t8;
        const V t84 = c[4] * t66;
        const V t85 = c[5] * t70;
        const V t86 = t84 - t85;
        const V t87 = c[4] * t67;
        const V t88 = c[5] * t71;
        const V t89 = t87 - t88;
        const V t90 = t79 + t89;
        const V t91 = t83 - t86;
        const V t92 = t79 - t89;
        const V t93 = t83 + t86;
        const V t94 = c[3] * t64;
        const V t95 = t9 - t94;
        const V t96 = c[2] * t68;
        const V t97 = t95 - t96;
        const V t98 = c[3] * t65;
        const V t99 = t8 - t98;
        const V t100 = c[2] * t69;
        const V t101 = t99 + t100;
        const V t102 = c[5] * t66;
        const V t103 = c[4] * t70;
        const V t104 = t102 + t103;
        const V t105 = c[5] * t67;
        const V t106 = c[4] * t71;
        const V t107 = t105 + t106;
        const V t108 = t97 + t107;
        const V t109 = t101 - t104;
        const V t110 = t97 - t107;
        const V t111 = t101 + t104;
        // complex block of 5, multiplier 4
        const V t112 = t37 + t1;
        const V t113 = t36 + t0;
        const V t114 = t37 - t1;
        const V t115 = t36 - t0;
        const V t116 = t15 + t33;
        const V t117 = t14 + t32;
        const V t118 = t33 - t15;
        const V t119 = t14 - t32;
        const V t120 = t112 - t116;
        const V t121 = t113 + t117;
        const V t122 = t120 + t19;
        const V t123 = t121 + t18;
        const V t124 = c[2] * t112;
        const V t125 = c[3] * t116;
        const V t126 = t124 + t125;
        const V t127 = t126 + t19;
        const V t128 = c[2] * t113;
        const V t129 = c[3] * t117;
        const V t130 = t128 - t129;
        const V t131 = t130 + t18;
        const V t132 = c[4] * t114;
        const V t133 = c[5] * t118;
        const V t134 = t132 - t133;
        const V t135 = c[4] * t115;
        const V t136 = c[5] * t119;
        const V t137 = t135 - t136;
        const V t138 = t127 + t137;
        const V t139 = t131 - t134;
        const V t140 = t127 - t137;
        const V t141 = t131 + t134;
        const V t142 = c[3] * t112;
        const V t143 = t19 - t142;
        const V t144 = c[2] * t116;
        const V t145 = t143 - t144;
        const V t146 = c[3] * t113;
        const V t147 = t18 - t146;
        const V t148 = c[2] * t117;
        const V t149 = t147 + t148;
        const V t150 = c[5] * t114;
        const V t151 = c[4] * t118;
        const V t152 = t150 + t151;
        const V t153 = c[5] * t115;
        const V t154 = c[4] * t119;
        const V t155 = t153 + t154;
        const V t156 = t145 + t155;
        const V t157 = t149 - t152;
        const V t158 = t145 - t155;
        const V t159 = t149 + t152;
        // complex block of 5, multiplier 4
        const V t160 = t11 - t41;
        const V t161 = t40 + t10;
        const V t162 = t41 + t11;
        const V t163 = t40 - t10;
        const V t164 = t5 + t23;
        const V t165 = t4 + t22;
        const V t166 = t23 - t5;
        const V t167 = t4 - t22;
        const V t168 = t160 - t164;
        const V t169 = t161 + t165;
        const V t170 = t168 + t29;
        const V t171 = t169 + t28;
        const V t172 = c[2] * t160;
        const V t173 = c[3] * t164;
        const V t174 = t172 + t173;
        const V t175 = t174 + t29;
        const V t176 = c[2] * t161;
        const V t177 = c[3] * t165;
        const V t178 = t176 - t177;
        const V t179 = t178 + t28;
        const V t180 = c[4] * t162;
        const V t181 = c[5] * t166;
        const V t182 = t180 + t181;
        const V t183 = c[4] * t163;
        const V t184 = c[5] * t167;
        const V t185 = t183 - t184;
        const V t186 = t175 + t185;
        const V t187 = t179 + t182;
        const V t188 = t175 - t185;
        const V t189 = t179 - t182;
        const V t190 = c[3] * t160;
        const V t191 = t29 - t190;
        const V t192 = c[2] * t164;
        const V t193 = t191 - t192;
        const V t194 = c[3] * t161;
        const V t195 = t28 - t194;
        const V t196 = c[2] * t165;
        const V t197 = t195 + t196;
        const V t198 = c[5] * t162;
        const V t199 = c[4] * t166;
        const V t200 = t199 - t198;
        const V t201 = c[5] * t163;
        const V t202 = c[4] * t167;
        const V t203 = t201 + t202;
        const V t204 = t193 + t203;
        const V t205 = t197 - t200;
        const V t206 = t193 - t203;
        const V t207 = t197 + t200;
        // complex block of 5, multiplier 4
        const V t208 = t21 - t31;
        const V t209 = t30 + t20;
        const V t210 = t31 + t21;
        const V t211 = t30 - t20;
        const V t212 = t3 - t13;
        const V t213 = t2 + t12;
        const V t214 = t3 + t13;
        const V t215 = t2 - t12;
        const V t216 = t208 + t212;
        const V t217 = t209 + t213;
        const V t218 = t216 + t39;
        const V t219 = t217 + t38;
        const V t220 = c[2] * t208;
        const V t221 = c[3] * t212;
        const V t222 = t220 - t221;
        const V t223 = t222 + t39;
        const V t224 = c[2] * t209;
        const V t225 = c[3] * t213;
        const V t226 = t224 - t225;
        const V t227 = t226 + t38;
        const V t228 = c[4] * t210;
        const V t229 = c[5] * t214;
        const V t230 = t228 + t229;
        const V t231 = c[4] * t211;
        const V t232 = c[5] * t215;
        const V t233 = t231 - t232;
        const V t234 = t223 + t233;
        const V t235 = t227 + t230;
        const V t236 = t223 - t233;
        const V t237 = t227 - t230;
        const V t238 = c[3] * t208;
        const V t239 = t39 - t238;
        const V t240 = c[2] * t212;
        const V t241 = t239 + t240;
        const V t242 = c[3] * t209;
        const V t243 = t38 - t242;
        const V t244 = c[2] * t213;
        const V t245 = t243 + t244;
        const V t246 = c[5] * t210;
        const V t247 = c[4] * t214;
        const V t248 = t247 - t246;
        const V t249 = c[5] * t211;
        const V t250 = c[4] * t215;
        const V t251 = t249 + t250;
        const V t252 = t241 + t251;
        const V t253 = t245 - t248;
        const V t254 = t241 - t251;
        const V t255 = t245 + t248;
        // spectrum block of 3, multiplier 2
        const V t256 = t171 + t45;
        const V t257 = c[0] * t171;
        const V t258 = t45 - t257;
        const V t259 = c[1] * t170;
        const V t260 = t258 - t259;
        const V t261 = t258 + t259;
        // complex block of 3, multiplier 2
        const V t262 = t218 - t122;
        const V t263 = t219 + t123;
        const V t264 = t218 + t122;
        const V t265 = t219 - t123;
        const V t266 = t262 + t74;
        const V t267 = t263 + t75;
        const V t268 = c[0] * t262;
        const V t269 = t74 - t268;
        const V t270 = c[0] * t263;
        const V t271 = t75 - t270;
        const V t272 = c[1] * t264;
        const V t273 = c[1] * t265;
        const V t274 = t269 + t273;
        const V t275 = t271 - t272;
        const V t276 = t269 - t273;
        const V t277 = t271 + t272;
        // spectrum block of 9, multiplier 5
        const V t278 = c[6] * t276;
        const V t279 = c[7] * t277;
        const V t280 = t278 - t279;
        const V t281 = c[8] * t274;
        const V t282 = c[9] * t275;
        const V t283 = t282 - t281;
        // spectrum block of 3, multiplier 2
        const V t284 = t267 + t256;
        io.out(0, t284);
        const V t285 = c[0] * t267;
        const V t286 = t256 - t285;
        const V t287 = c[1] * t266;
        const V t288 = t286 - t287;
        io.out(30, t288);
        const V t289 = t286 + t287;
        io.out(15, t289);
        // spectrum block of 3, multiplier 2
        const V t290 = t280 + t261;
        io.out(5, t290);
        const V t291 = c[0] * t280;
        const V t292 = t261 - t291;
        const V t293 = c[10] * t276;
        const V t294 = c[11] * t277;
        const V t295 = t293 + t294;
        const V t296 = t292 + t295;
        io.out(35, t296);
        const V t297 = t292 - t295;
        io.out(20, t297);
        // spectrum block of 3, multiplier 2
        const V t298 = t283 + t260;
        io.out(10, t298);
        const V t299 = c[0] * t283;
        const V t300 = t260 - t299;
        const V t301 = c[12] * t274;
        const V t302 = c[13] * t275;
        const V t303 = t301 + t302;
        const V t304 = t300 - t303;
        io.out(40, t304);
        const V t305 = t300 + t303;
        io.out(25, t305);
        // spectrum block of 3, multiplier 2
        const V t306 = t189 + t54;
        const V t307 = c[0] * t189;
        const V t308 = t54 - t307;
        const V t309 = c[1] * t188;
        const V t310 = t308 - t309;
        const V t311 = t308 + t309;
        // complex block of 3, multiplier 2
        const V t312 = t236 - t140;
        const V t313 = t237 + t141;
        const V t314 = t236 + t140;
        const V t315 = t237 - t141;
        const V t316 = t312 + t92;
        const V t317 = t313 + t93;
        const V t318 = c[0] * t312;
        const V t319 = t92 - t318;
        const V t320 = c[0] * t313;
        const V t321 = t93 - t320;
        const V t322 = c[1] * t314;
        const V t323 = c[1] * t315;
        const V t324 = t319 + t323;
        const V t325 = t321 - t322;
        const V t326 = t319 - t323;
        const V t327 = t321 + t322;
        // spectrum block of 9, multiplier 5
        const V t328 = c[6] * t326;
        const V t329 = c[7] * t327;
        const V t330 = t328 - t329;
        const V t331 = c[8] * t324;
        const V t332 = c[9] * t325;
        const V t333 = t332 - t331;
        // spectrum block of 3, multiplier 2
        const V t334 = t317 + t306;
        io.out(9, t334);
        const V t335 = c[0] * t317;
        const V t336 = t306 - t335;
        const V t337 = c[1] * t316;
        const V t338 = t336 - t337;
        io.out(39, t338);
        const V t339 = t336 + t337;
        io.out(24, t339);
        // spectrum block of 3, multiplier 2
        const V t340 = t330 + t311;
        io.out(14, t340);
        const V t341 = c[0] * t330;
        const V t342 = t311 - t341;
        const V t343 = c[10] * t326;
        const V t344 = c[11] * t327;
        const V t345 = t343 + t344;
        const V t346 = t342 + t345;
        io.out(44, t346);
        const V t347 = t342 - t345;
        io.out(29, t347);
        // spectrum block of 3, multiplier 2
        const V t348 = t333 + t310;
        io.out(19, t348);
        const V t349 = c[0] * t333;
        const V t350 = t310 - t349;
        const V t351 = c[12] * t324;
        const V t352 = c[13] * t325;
        const V t353 = t351 + t352;
        const V t354 = t350 - t353;
        io.out(4, t354);
        const V t355 = t350 + t353;
        io.out(34, t355);
        // spectrum block of 3, multiplier 2
        const V t356 = t207 + t63;
        const V t357 = c[0] * t207;
        const V t358 = t63 - t357;
        const V t359 = c[1] * t206;
        const V t360 = t358 - t359;
        const V t361 = t358 + t359;
        // complex block of 3, multiplier 2
        const V t362 = t254 - t158;
        const V t363 = t255 + t159;
        const V t364 = t254 + t158;
        const V t365 = t255 - t159;
        const V t366 = t362 + t110;
        const V t367 = t363 + t111;
        const V t368 = c[0] * t362;
        const V t369 = t110 - t368;
        const V t370 = c[0] * t363;
        const V t371 = t111 - t370;
        const V t372 = c[1] * t364;
        const V t373 = c[1] * t365;
        const V t374 = t369 + t373;
        const V t375 = t371 - t372;
        const V t376 = t369 - t373;
        const V t377 = t371 + t372;
        // spectrum block of 9, multiplier 5
        const V t378 = c[6] * t376;
        const V t379 = c[7] * t377;
        const V t380 = t378 - t379;
        const V t381 = c[8] * t374;
        const V t382 = c[9] * t375;
        const V t383 = t382 - t381;
        // spectrum block of 3, multiplier 2
        const V t384 = t367 + t356;
        io.out(18, t384);
        const V t385 = c[0] * t367;
        const V t386 = t356 - t385;
        const V t387 = c[1] * t366;
        const V t388 = t386 - t387;
        io.out(3, t388);
        const V t389 = t386 + t387;
        io.out(33, t389);
        // spectrum block of 3, multiplier 2
        const V t390 = t380 + t361;
        io.out(23, t390);
        const V t391 = c[0] * t380;
        const V t392 = t361 - t391;
        const V t393 = c[10] * t376;
        const V t394 = c[11] * t377;
        const V t395 = t393 + t394;
        const V t396 = t392 + t395;
        io.out(8, t396);
        const V t397 = t392 - t395;
        io.out(38, t397);
        // spectrum block of 3, multiplier 2
        const V t398 = t383 + t360;
        io.out(28, t398);
        const V t399 = c[0] * t383;
        const V t400 = t360 - t399;
        const V t401 = c[12] * t374;
        const V t402 = c[13] * t375;
        const V t403 = t401 + t402;
        const V t404 = t400 - t403;
        io.out(13, t404);
        const V t405 = t400 + t403;
        io.out(43, t405);
        // spectrum block of 3, multiplier 2
        const V t406 = t205 + t62;
        const V t407 = c[0] * t205;
        const V t408 = t62 - t407;
        const V t409 = c[1] * t204;
        const V t410 = t408 - t409;
        const V t411 = t408 + t409;
        // complex block of 3, multiplier 2
        const V t412 = t252 - t156;
        const V t413 = t253 + t157;
        const V t414 = t252 + t156;
        const V t415 = t253 - t157;
        const V t416 = t412 + t108;
        const V t417 = t413 + t109;
        const V t418 = c[0] * t412;
        const V t419 = t108 - t418;
        const V t420 = c[0] * t413;
        const V t421 = t109 - t420;
        const V t422 = c[1] * t414;
        const V t423 = c[1] * t415;
        const V t424 = t419 + t423;
        const V t425 = t421 - t422;
        const V t426 = t419 - t423;
        const V t427 = t421 + t422;
        // spectrum block of 9, multiplier 5
        const V t428 = c[6] * t426;
        const V t429 = c[7] * t427;
        const V t430 = t428 - t429;
        const V t431 = c[8] * t424;
        const V t432 = c[9] * t425;
        const V t433 = t432 - t431;
        // spectrum block of 3, multiplier 2
        const V t434 = t417 + t406;
        io.out(27, t434);
        const V t435 = c[0] * t417;
        const V t436 = t406 - t435;
        const V t437 = c[1] * t416;
        const V t438 = t436 - t437;
        io.out(12, t438);
        const V t439 = t436 + t437;
        io.out(42, t439);
        // spectrum block of 3, multiplier 2
        const V t440 = t430 + t411;
        io.out(32, t440);
        const V t441 = c[0] * t430;
        const V t442 = t411 - t441;
        const V t443 = c[10] * t426;
        const V t444 = c[11] * t427;
        const V t445 = t443 + t444;
        const V t446 = t442 + t445;
        io.out(17, t446);
        const V t447 = t442 - t445;
        io.out(2, t447);
        // spectrum block of 3, multiplier 2
        const V t448 = t433 + t410;
        io.out(37, t448);
        const V t449 = c[0] * t433;
        const V t450 = t410 - t449;
        const V t451 = c[12] * t424;
        const V t452 = c[13] * t425;
        const V t453 = t451 + t452;
        const V t454 = t450 - t453;
        io.out(22, t454);
        const V t455 = t450 + t453;
        io.out(7, t455);
        // spectrum block of 3, multiplier 2
        const V t456 = t187 + t53;
        const V t457 = c[0] * t187;
        const V t458 = t53 - t457;
        const V t459 = c[1] * t186;
        const V t460 = t458 - t459;
        const V t461 = t458 + t459;
        // complex block of 3, multiplier 2
        const V t462 = t234 - t138;
        const V t463 = t235 + t139;
        const V t464 = t234 + t138;
        const V t465 = t235 - t139;
        const V t466 = t462 + t90;
        const V t467 = t463 + t91;
        const V t468 = c[0] * t462;
        const V t469 = t90 - t468;
        const V t470 = c[0] * t463;
        const V t471 = t91 - t470;
        const V t472 = c[1] * t464;
        const V t473 = c[1] * t465;
        const V t474 = t469 + t473;
        const V t475 = t471 - t472;
        const V t476 = t469 - t473;
        const V t477 = t471 + t472;
        // spectrum block of 9, multiplier 5
        const V t478 = c[6] * t476;
        const V t479 = c[7] * t477;
        const V t480 = t478 - t479;
        const V t481 = c[8] * t474;
        const V t482 = c[9] * t475;
        const V t483 = t482 - t481;
        // spectrum block of 3, multiplier 2
        const V t484 = t467 + t456;
        io.out(36, t484);
        const V t485 = c[0] * t467;
        const V t486 = t456 - t485;
        const V t487 = c[1] * t466;
        const V t488 = t486 - t487;
        io.out(21, t488);
        const V t489 = t486 + t487;
        io.out(6, t489);
        // spectrum block of 3, multiplier 2
        const V t490 = t480 + t461;
        io.out(41, t490);
        const V t491 = c[0] * t480;
        const V t492 = t461 - t491;
        const V t493 = c[10] * t476;
        const V t494 = c[11] * t477;
        const V t495 = t493 + t494;
        const V t496 = t492 + t495;
        io.out(26, t496);
        const V t497 = t492 - t495;
        io.out(11, t497);
        // spectrum block of 3, multiplier 2
        const V t498 = t483 + t460;
        io.out(1, t498);
        const V t499 = c[0] * t483;
        const V t500 = t460 - t499;
        const V t501 = c[12] * t474;
        const V t502 = c[13] * t475;
        const V t503 = t501 + t502;
        const V t504 = t500 - t503;
        io.out(31, t504);
        const V t505 = t500 + t503;
        io.out(16, t505);
    }
};

}  // namespace zulg
