// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 33.
// Hartley transform of 33 points, form I.
// 162 additions, 138 subtractions, 172 multiplications (205 with `scale`); 16 constants; 37 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<33> {
    static constexpr int steps = 505;  // with `scale`
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
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x32 = io.in(32);
        const V t0 = x1 + x32;
        const V t1 = x1 - x32;
        const V x2 = io.in(2);
        const V x31 = io.in(31);
        const V t2 = x2 + x31;
        const V t3 = x2 - x31;
        const V x3 = io.in(3);
        const V x30 = io.in(30);
        const V t4 = x3 + x30;
        const V t5 = x3 - x30;
        const V x4 = io.in(4);
        const V x29 = io.in(29);
        const V t6 = x4 + x29;
        const V t7 = x4 - x29;
        const V x5 = io.in(5);
        const V x28 = io.in(28);
        const V t8 = x5 + x28;
        const V t9 = x5 - x28;
        const V x6 = io.in(6);
        const V x27 = io.in(27);
        const V t10 = x6 + x27;
        const V t11 = x6 - x27;
        const V x7 = io.in(7);
        const V x26 = io.in(26);
        const V t12 = x7 + x26;
        const V t13 = x7 - x26;
        const V x8 = io.in(8);
        const V x25 = io.in(25);
        const V t14 = x8 + x25;
        const V t15 = x8 - x25;
        const V x9 = io.in(9);
        const V x24 = io.in(24);
        const V t16 = x9 + x24;
        const V t17 = x9 - x24;
        const V x10 = io.in(10);
        const V x23 = io.in(23);
        const V t18 = x10 + x23;
        const V t19 = x10 - x23;
        const V x11 = io.in(11);
        const V x22 = io.in(22);
        const V t20 = x11 + x22;
        const V t21 = x11 - x22;
        const V x12 = io.in(12);
        const V x21 = io.in(21);
        const V t22 = x12 + x21;
        const V t23 = x12 - x21;
        const V x13 = io.in(13);
        const V x20 = io.in(20);
        const V t24 = x13 + x20;
        const V t25 = x13 - x20;
        const V x14 = io.in(14);
        const V x19 = io.in(19);
        const V t26 = x14 + x19;
        const V t27 = x14 - x19;
        const V x15 = io.in(15);
        const V x18 = io.in(18);
        const V t28 = x15 + x18;
        const V t29 = x15 - x18;
        const V x16 = io.in(16);
        const V x17 = io.in(17);
        const V t30 = x16 + x17;
        const V t31 = x16 - x17;
        // spectrum block of 3, multiplier 2
        const V x0 = io.in(0);
        const V t32 = t20 + x0;
        const V t33 = c[4] * t20;
        const V t34 = x0 - t33;
        const V t35 = c[5] * t21;
        const V t36 = t34 - t35;
        const V t37 = t34 + t35;
        // complex block of 3, multiplier 2
        const V t38 = t27 - t15;
        const V t39 = t26 + t14;
        const V t40 = t27 + t15;
        const V t41 = t26 - t14;
        const V t42 = t38 + t5;
        const V t43 = t39 + t4;
        const V t44 = c[4] * t38;
        const V t45 = t5 - t44;
        const V t46 = c[4] * t39;
        const V t47 = t4 - t46;
        const V t48 = c[5] * t40;
        const V t49 = c[5] * t41;
        const V t50 = t45 + t49;
        const V t51 = t47 - t48;
        const V t52 = t45 - t49;
        const V t53 = t47 + t48;
        // complex block of 3, multiplier 2
        const V t54 = t31 + t9;
        const V t55 = t30 + t8;
        const V t56 = t9 - t31;
        const V t57 = t30 - t8;
        const V t58 = t11 - t54;
        const V t59 = t55 + t10;
        const V t60 = c[4] * t54;
        const V t61 = t60 + t11;
        const V t62 = c[4] * t55;
        const V t63 = t10 - t62;
        const V t64 = c[5] * t56;
        const V t65 = c[5] * t57;
        const V t66 = t61 + t65;
        const V t67 = t63 - t64;
        const V t68 = t61 - t65;
        const V t69 = t63 + t64;
        // complex block of 3, multiplier 2
        const V t70 = t25 + t3;
        const V t71 = t24 + t2;
        const V t72 = t3 - t25;
        const V t73 = t24 - t2;
        const V t74 = t17 - t70;
        const V t75 = t71 + t16;
        const V t76 = c[4] * t70;
        const V t77 = t76 + t17;
        const V t78 = c[4] * t71;
        const V t79 = t16 - t78;
        const V t80 = c[5] * t72;
        const V t81 = c[5] * t73;
        const V t82 = t77 + t81;
        const V t83 = t79 - t80;
        const V t84 = t77 - t81;
        const V t85 = t79 + t80;
        // complex block of 3, multiplier 2
        const V t86 = t1 - t19;
        const V t87 = t18 + t0;
        const V t88 = t19 + t1;
        const V t89 = t18 - t0;
        const V t90 = t86 + t23;
        const V t91 = t87 + t22;
        const V t92 = c[4] * t86;
        const V t93 = t23 - t92;
        const V t94 = c[4] * t87;
        const V t95 = t22 - t94;
        const V t96 = c[5] * t88;
        const V t97 = c[5] * t89;
        const V t98 = t93 + t97;
        const V t99 = t95 + t96;
        const V t100 = t93 - t97;
        const V t101 = t95 - t96;
        // complex block of 3, multiplier 2
        const V t102 = t7 - t13;
        const V t103 = t12 + t6;
        const V t104 = t13 + t7;
        const V t105 = t12 - t6;
        const V t106 = t102 + t29;
        const V t107 = t103 + t28;
        const V t108 = c[4] * t102;
        const V t109 = t29 - t108;
        const V t110 = c[4] * t103;
        const V t111 = t28 - t110;
        const V t112 = c[5] * t104;
        const V t113 = c[5] * t105;
        const V t114 = t109 + t113;
        const V t115 = t111 + t112;
        const V t116 = t109 - t113;
        const V t117 = t111 - t112;
        // real block of 5
        const V t118 = t59 + t107;
        const V t119 = t59 - t107;
        const V t120 = t75 + t91;
        const V t121 = t75 - t91;
        const V t122 = t118 + t120;
        const V t123 = t122 + t43;
        const V t124 = c[0] * t118;
        const V t125 = c[1] * t120;
        const V t126 = t124 - t125;
        const V t127 = t126 + t43;
        const V t128 = c[2] * t119;
        const V t129 = c[3] * t121;
        const V t130 = t129 - t128;
        const V t131 = c[1] * t118;
        const V t132 = t43 - t131;
        const V t133 = c[0] * t120;
        const V t134 = t132 + t133;
        const V t135 = c[3] * t119;
        const V t136 = c[2] * t121;
        const V t137 = t135 + t136;
        // real block of 5
        const V t138 = t106 - t58;
        const V t139 = t58 + t106;
        const V t140 = t74 + t90;
        const V t141 = t74 - t90;
        const V t142 = t138 + t140;
        const V t143 = t142 + t42;
        const V t144 = c[0] * t138;
        const V t145 = c[1] * t140;
        const V t146 = t144 - t145;
        const V t147 = t146 + t42;
        const V t148 = c[2] * t139;
        const V t149 = c[3] * t141;
        const V t150 = t148 + t149;
        const V t151 = c[1] * t138;
        const V t152 = t42 - t151;
        const V t153 = c[0] * t140;
        const V t154 = t152 + t153;
        const V t155 = c[3] * t139;
        const V t156 = c[2] * t141;
        const V t157 = t155 - t156;
        // spectrum block of 11, multiplier 3
        const V t158 = c[14] * t123;
        const V t159 = t32 - t158;
        const V t160 = c[6] * t157;
        const V t161 = c[7] * t154;
        const V t162 = t161 + t160;
        const V t163 = c[6] * t154;
        const V t164 = c[7] * t157;
        const V t165 = t164 - t163;
        const V t166 = c[8] * t130;
        const V t167 = c[9] * t127;
        const V t168 = t166 - t167;
        const V t169 = c[8] * t127;
        const V t170 = c[9] * t130;
        const V t171 = t170 + t169;
        const V t172 = c[10] * t150;
        const V t173 = c[11] * t147;
        const V t174 = t172 - t173;
        const V t175 = c[10] * t147;
        const V t176 = c[11] * t150;
        const V t177 = t176 + t175;
        const V t178 = c[12] * t137;
        const V t179 = c[13] * t134;
        const V t180 = t179 - t178;
        const V t181 = c[12] * t134;
        const V t182 = c[13] * t137;
        const V t183 = t182 + t181;
        const V t184 = c[15] * t143;
        // spectrum block of 2
        const V t185 = t159 - t184;
        const V t186 = t159 + t184;
        // complex block of 2
        const V t187 = t171 + t177;
        const V t188 = t168 + t174;
        const V t189 = t177 - t171;
        const V t190 = t168 - t174;
        // complex block of 2
        const V t191 = t183 + t165;
        const V t192 = t180 - t162;
        const V t193 = t165 - t183;
        const V t194 = t180 + t162;
        // spectrum block of 5, multiplier 2
        const V t195 = t188 + t192;
        const V t196 = t195 + t185;
        io.out(30, t196);
        const V t197 = c[0] * t188;
        const V t198 = c[1] * t192;
        const V t199 = t197 - t198;
        const V t200 = t199 + t185;
        const V t201 = c[2] * t187;
        const V t202 = c[3] * t191;
        const V t203 = t201 + t202;
        const V t204 = t200 + t203;
        io.out(18, t204);
        const V t205 = t200 - t203;
        io.out(6, t205);
        const V t206 = c[1] * t188;
        const V t207 = t185 - t206;
        const V t208 = c[0] * t192;
        const V t209 = t207 + t208;
        const V t210 = c[3] * t187;
        const V t211 = c[2] * t191;
        const V t212 = t211 - t210;
        const V t213 = t209 - t212;
        io.out(24, t213);
        const V t214 = t209 + t212;
        io.out(21, t214);
        // spectrum block of 5, multiplier 2
        const V t215 = t190 + t194;
        const V t216 = t215 + t186;
        io.out(3, t216);
        const V t217 = c[0] * t190;
        const V t218 = c[1] * t194;
        const V t219 = t217 - t218;
        const V t220 = t219 + t186;
        const V t221 = c[2] * t189;
        const V t222 = c[3] * t193;
        const V t223 = t221 + t222;
        const V t224 = t220 - t223;
        io.out(15, t224);
        const V t225 = t220 + t223;
        io.out(27, t225);
        const V t226 = c[1] * t190;
        const V t227 = t186 - t226;
        const V t228 = c[0] * t194;
        const V t229 = t227 + t228;
        const V t230 = c[3] * t189;
        const V t231 = c[2] * t193;
        const V t232 = t230 - t231;
        const V t233 = t229 - t232;
        io.out(9, t233);
        const V t234 = t229 + t232;
        io.out(12, t234);
        // spectrum block of 11, multiplier 3
        const V t235 = t32 + t123;
        io.out(0, t235);
        // real block of 5
        const V t236 = t69 + t117;
        const V t237 = t69 - t117;
        const V t238 = t85 + t101;
        const V t239 = t85 - t101;
        const V t240 = t236 + t238;
        const V t241 = t240 + t53;
        const V t242 = c[0] * t236;
        const V t243 = c[1] * t238;
        const V t244 = t242 - t243;
        const V t245 = t244 + t53;
        const V t246 = c[2] * t237;
        const V t247 = c[3] * t239;
        const V t248 = t247 - t246;
        const V t249 = c[1] * t236;
        const V t250 = t53 - t249;
        const V t251 = c[0] * t238;
        const V t252 = t250 + t251;
        const V t253 = c[3] * t237;
        const V t254 = c[2] * t239;
        const V t255 = t253 + t254;
        // real block of 5
        const V t256 = t116 - t68;
        const V t257 = t68 + t116;
        const V t258 = t84 + t100;
        const V t259 = t84 - t100;
        const V t260 = t256 + t258;
        const V t261 = t260 + t52;
        const V t262 = c[0] * t256;
        const V t263 = c[1] * t258;
        const V t264 = t262 - t263;
        const V t265 = t264 + t52;
        const V t266 = c[2] * t257;
        const V t267 = c[3] * t259;
        const V t268 = t266 + t267;
        const V t269 = c[1] * t256;
        const V t270 = t52 - t269;
        const V t271 = c[0] * t258;
        const V t272 = t270 + t271;
        const V t273 = c[3] * t257;
        const V t274 = c[2] * t259;
        const V t275 = t273 - t274;
        // spectrum block of 11, multiplier 3
        const V t276 = c[14] * t241;
        const V t277 = t37 - t276;
        const V t278 = c[6] * t275;
        const V t279 = c[7] * t272;
        const V t280 = t279 + t278;
        const V t281 = c[6] * t272;
        const V t282 = c[7] * t275;
        const V t283 = t282 - t281;
        const V t284 = c[8] * t248;
        const V t285 = c[9] * t245;
        const V t286 = t284 - t285;
        const V t287 = c[8] * t245;
        const V t288 = c[9] * t248;
        const V t289 = t288 + t287;
        const V t290 = c[10] * t268;
        const V t291 = c[11] * t265;
        const V t292 = t290 - t291;
        const V t293 = c[10] * t265;
        const V t294 = c[11] * t268;
        const V t295 = t294 + t293;
        const V t296 = c[12] * t255;
        const V t297 = c[13] * t252;
        const V t298 = t297 - t296;
        const V t299 = c[12] * t252;
        const V t300 = c[13] * t255;
        const V t301 = t300 + t299;
        const V t302 = c[15] * t261;
        // spectrum block of 2
        const V t303 = t277 - t302;
        const V t304 = t277 + t302;
        // complex block of 2
        const V t305 = t289 + t295;
        const V t306 = t286 + t292;
        const V t307 = t295 - t289;
        const V t308 = t286 - t292;
        // complex block of 2
        const V t309 = t301 + t283;
        const V t310 = t298 - t280;
        const V t311 = t283 - t301;
        const V t312 = t298 + t280;
        // spectrum block of 5, multiplier 2
        const V t313 = t306 + t310;
        const V t314 = t313 + t303;
        io.out(19, t314);
        const V t315 = c[0] * t306;
        const V t316 = c[1] * t310;
        const V t317 = t315 - t316;
        const V t318 = t317 + t303;
        const V t319 = c[2] * t305;
        const V t320 = c[3] * t309;
        const V t321 = t319 + t320;
        const V t322 = t318 + t321;
        io.out(7, t322);
        const V t323 = t318 - t321;
        io.out(28, t323);
        const V t324 = c[1] * t306;
        const V t325 = t303 - t324;
        const V t326 = c[0] * t310;
        const V t327 = t325 + t326;
        const V t328 = c[3] * t305;
        const V t329 = c[2] * t309;
        const V t330 = t329 - t328;
        const V t331 = t327 - t330;
        io.out(13, t331);
        const V t332 = t327 + t330;
        io.out(10, t332);
        // spectrum block of 5, multiplier 2
        const V t333 = t308 + t312;
        const V t334 = t333 + t304;
        io.out(25, t334);
        const V t335 = c[0] * t308;
        const V t336 = c[1] * t312;
        const V t337 = t335 - t336;
        const V t338 = t337 + t304;
        const V t339 = c[2] * t307;
        const V t340 = c[3] * t311;
        const V t341 = t339 + t340;
        const V t342 = t338 - t341;
        io.out(4, t342);
        const V t343 = t338 + t341;
        io.out(16, t343);
        const V t344 = c[1] * t308;
        const V t345 = t304 - t344;
        const V t346 = c[0] * t312;
        const V t347 = t345 + t346;
        const V t348 = c[3] * t307;
        const V t349 = c[2] * t311;
        const V t350 = t348 - t349;
        const V t351 = t347 - t350;
        io.out(31, t351);
        const V t352 = t347 + t350;
        io.out(1, t352);
        // spectrum block of 11, multiplier 3
        const V t353 = t37 + t241;
        io.out(22, t353);
        // real block of 5
        const V t354 = t67 + t115;
        const V t355 = t67 - t115;
        const V t356 = t83 + t99;
        const V t357 = t83 - t99;
        const V t358 = t354 + t356;
        const V t359 = t358 + t51;
        const V t360 = c[0] * t354;
        const V t361 = c[1] * t356;
        const V t362 = t360 - t361;
        const V t363 = t362 + t51;
        const V t364 = c[2] * t355;
        const V t365 = c[3] * t357;
        const V t366 = t365 - t364;
        const V t367 = c[1] * t354;
        const V t368 = t51 - t367;
        const V t369 = c[0] * t356;
        const V t370 = t368 + t369;
        const V t371 = c[3] * t355;
        const V t372 = c[2] * t357;
        const V t373 = t371 + t372;
        // real block of 5
        const V t374 = t114 - t66;
        const V t375 = t66 + t114;
        const V t376 = t82 + t98;
        const V t377 = t82 - t98;
        const V t378 = t374 + t376;
        const V t379 = t378 + t50;
        const V t380 = c[0] * t374;
        const V t381 = c[1] * t376;
        const V t382 = t380 - t381;
        const V t383 = t382 + t50;
        const V t384 = c[2] * t375;
        const V t385 = c[3] * t377;
        const V t386 = t384 + t385;
        const V t387 = c[1] * t374;
        const V t388 = t50 - t387;
        const V t389 = c[0] * t376;
        const V t390 = t388 + t389;
        const V t391 = c[3] * t375;
        const V t392 = c[2] * t377;
        const V t393 = t391 - t392;
        // spectrum block of 11, multiplier 3
        const V t394 = c[14] * t359;
        const V t395 = t36 - t394;
        const V t396 = c[6] * t393;
        const V t397 = c[7] * t390;
        const V t398 = t397 + t396;
        const V t399 = c[6] * t390;
        const V t400 = c[7] * t393;
        const V t401 = t400 - t399;
        const V t402 = c[8] * t366;
        const V t403 = c[9] * t363;
        const V t404 = t402 - t403;
        const V t405 = c[8] * t363;
        const V t406 = c[9] * t366;
        const V t407 = t406 + t405;
        const V t408 = c[10] * t386;
        const V t409 = c[11] * t383;
        const V t410 = t408 - t409;
        const V t411 = c[10] * t383;
        const V t412 = c[11] * t386;
        const V t413 = t412 + t411;
        const V t414 = c[12] * t373;
        const V t415 = c[13] * t370;
        const V t416 = t415 - t414;
        const V t417 = c[12] * t370;
        const V t418 = c[13] * t373;
        const V t419 = t418 + t417;
        const V t420 = c[15] * t379;
        // spectrum block of 2
        const V t421 = t395 - t420;
        const V t422 = t395 + t420;
        // complex block of 2
        const V t423 = t407 + t413;
        const V t424 = t404 + t410;
        const V t425 = t413 - t407;
        const V t426 = t404 - t410;
        // complex block of 2
        const V t427 = t419 + t401;
        const V t428 = t416 - t398;
        const V t429 = t401 - t419;
        const V t430 = t416 + t398;
        // spectrum block of 5, multiplier 2
        const V t431 = t424 + t428;
        const V t432 = t431 + t421;
        io.out(8, t432);
        const V t433 = c[0] * t424;
        const V t434 = c[1] * t428;
        const V t435 = t433 - t434;
        const V t436 = t435 + t421;
        const V t437 = c[2] * t423;
        const V t438 = c[3] * t427;
        const V t439 = t437 + t438;
        const V t440 = t436 + t439;
        io.out(29, t440);
        const V t441 = t436 - t439;
        io.out(17, t441);
        const V t442 = c[1] * t424;
        const V t443 = t421 - t442;
        const V t444 = c[0] * t428;
        const V t445 = t443 + t444;
        const V t446 = c[3] * t423;
        const V t447 = c[2] * t427;
        const V t448 = t447 - t446;
        const V t449 = t445 - t448;
        io.out(2, t449);
        const V t450 = t445 + t448;
        io.out(32, t450);
        // spectrum block of 5, multiplier 2
        const V t451 = t426 + t430;
        const V t452 = t451 + t422;
        io.out(14, t452);
        const V t453 = c[0] * t426;
        const V t454 = c[1] * t430;
        const V t455 = t453 - t454;
        const V t456 = t455 + t422;
        const V t457 = c[2] * t425;
        const V t458 = c[3] * t429;
        const V t459 = t457 + t458;
        const V t460 = t456 - t459;
        io.out(26, t460);
        const V t461 = t456 + t459;
        io.out(5, t461);
        const V t462 = c[1] * t426;
        const V t463 = t422 - t462;
        const V t464 = c[0] * t430;
        const V t465 = t463 + t464;
        const V t466 = c[3] * t425;
        const V t467 = c[2] * t429;
        const V t468 = t466 - t467;
        const V t469 = t465 - t468;
        io.out(20, t469);
        const V t470 = t465 + t468;
        io.out(23, t470);
        // spectrum block of 11, multiplier 3
        const V t471 = t36 + t359;
        io.out(11, t471);
    }
};

}  // namespace zulg
