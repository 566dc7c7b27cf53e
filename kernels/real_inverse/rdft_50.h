// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 50.
// Inverse DFT to 50 real points, prime-factor 25, 2.
// 187 additions, 167 subtractions, 272 multiplications (322 with `scale`); 17 constants; 58 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<50> {
    static constexpr int steps = 676;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.8443279255020151,  // c[4]: -sin 2 pi 21/25
        0.5358267949789967,  // c[5]: cos 2 pi 21/25
        0.9048270524660196,  // c[6]: -sin 2 pi 17/25
        0.42577929156507266,  // c[7]: -cos 2 pi 17/25
        0.48175367410171527,  // c[8]: -sin 2 pi 23/25
        0.8763066800438636,  // c[9]: cos 2 pi 23/25
        0.9980267284282716,  // c[10]: -sin 2 pi 19/25
        0.06279051952931337,  // c[11]: cos 2 pi 19/25
        0.12533323356430426,  // c[12]: -sin 2 pi 13/25
        0.9921147013144779,  // c[13]: -cos 2 pi 13/25
        0.7705132427757893,  // c[14]: sin 2 pi 9/25
        0.6374239897486897,  // c[15]: -cos 2 pi 9/25
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
        const V x23r = io.re(23);
        const V t44 = two * x23r;
        const V x23i = io.im(23);
        const V t45 = two * x23i;
        const V x24r = io.re(24);
        const V t46 = two * x24r;
        const V x24i = io.im(24);
        const V t47 = two * x24i;
        // spectrum block of 5, multiplier 2
        const V t48 = t18 + t38;
        const V x0r = io.re(0);
        const V t49 = t48 + x0r;
        const V t50 = c[0] * t18;
        const V t51 = c[1] * t38;
        const V t52 = t50 - t51;
        const V t53 = t52 + x0r;
        const V t54 = c[2] * t19;
        const V t55 = c[3] * t39;
        const V t56 = t54 + t55;
        const V t57 = t53 - t56;
        const V t58 = t53 + t56;
        const V t59 = c[1] * t18;
        const V t60 = x0r - t59;
        const V t61 = c[0] * t38;
        const V t62 = t60 + t61;
        const V t63 = c[3] * t19;
        const V t64 = c[2] * t39;
        const V t65 = t63 - t64;
        const V t66 = t62 - t65;
        const V t67 = t62 + t65;
        // complex block of 5, multiplier 2
        const V t68 = t23 - t15;
        const V t69 = t22 + t14;
        const V t70 = t23 + t15;
        const V t71 = t22 - t14;
        const V t72 = t43 - t35;
        const V t73 = t34 + t42;
        const V t74 = t35 + t43;
        const V t75 = t34 - t42;
        const V t76 = t68 + t72;
        const V t77 = t69 + t73;
        const V t78 = t76 + t3;
        const V t79 = t77 + t2;
        const V t80 = c[0] * t68;
        const V t81 = c[1] * t72;
        const V t82 = t80 - t81;
        const V t83 = t82 + t3;
        const V t84 = c[0] * t69;
        const V t85 = c[1] * t73;
        const V t86 = t84 - t85;
        const V t87 = t86 + t2;
        const V t88 = c[2] * t70;
        const V t89 = c[3] * t74;
        const V t90 = t88 + t89;
        const V t91 = c[2] * t71;
        const V t92 = c[3] * t75;
        const V t93 = t91 - t92;
        const V t94 = t83 + t93;
        const V t95 = t87 - t90;
        const V t96 = t83 - t93;
        const V t97 = t87 + t90;
        const V t98 = c[1] * t68;
        const V t99 = t3 - t98;
        const V t100 = c[0] * t72;
        const V t101 = t99 + t100;
        const V t102 = c[1] * t69;
        const V t103 = t2 - t102;
        const V t104 = c[0] * t73;
        const V t105 = t103 + t104;
        const V t106 = c[3] * t70;
        const V t107 = c[2] * t74;
        const V t108 = t106 - t107;
        const V t109 = c[3] * t71;
        const V t110 = c[2] * t75;
        const V t111 = t109 + t110;
        const V t112 = t101 + t111;
        const V t113 = t105 - t108;
        const V t114 = t101 - t111;
        const V t115 = t105 + t108;
        // spectrum block of 25, multiplier 2
        const V t116 = c[8] * t112;
        const V t117 = c[9] * t113;
        const V t118 = t117 - t116;
        const V t119 = c[8] * t113;
        const V t120 = c[9] * t112;
        const V t121 = t120 + t119;
        const V t122 = c[4] * t96;
        const V t123 = c[5] * t97;
        const V t124 = t123 - t122;
        const V t125 = c[4] * t97;
        const V t126 = c[5] * t96;
        const V t127 = t126 + t125;
        const V t128 = c[10] * t94;
        const V t129 = c[11] * t95;
        const V t130 = t129 - t128;
        const V t131 = c[10] * t95;
        const V t132 = c[11] * t94;
        const V t133 = t132 + t131;
        const V t134 = c[6] * t114;
        const V t135 = c[7] * t115;
        const V t136 = t135 + t134;
        const V t137 = c[6] * t115;
        const V t138 = c[7] * t114;
        const V t139 = t137 - t138;
        // complex block of 5, multiplier 2
        const V t140 = t27 - t11;
        const V t141 = t26 + t10;
        const V t142 = t27 + t11;
        const V t143 = t26 - t10;
        const V t144 = t47 - t31;
        const V t145 = t30 + t46;
        const V t146 = t31 + t47;
        const V t147 = t30 - t46;
        const V t148 = t140 + t144;
        const V t149 = t141 + t145;
        const V t150 = t148 + t7;
        const V t151 = t149 + t6;
        const V t152 = c[0] * t140;
        const V t153 = c[1] * t144;
        const V t154 = t152 - t153;
        const V t155 = t154 + t7;
        const V t156 = c[0] * t141;
        const V t157 = c[1] * t145;
        const V t158 = t156 - t157;
        const V t159 = t158 + t6;
        const V t160 = c[2] * t142;
        const V t161 = c[3] * t146;
        const V t162 = t160 + t161;
        const V t163 = c[2] * t143;
        const V t164 = c[3] * t147;
        const V t165 = t163 - t164;
        const V t166 = t155 + t165;
        const V t167 = t159 - t162;
        const V t168 = t155 - t165;
        const V t169 = t159 + t162;
        const V t170 = c[1] * t140;
        const V t171 = t7 - t170;
        const V t172 = c[0] * t144;
        const V t173 = t171 + t172;
        const V t174 = c[1] * t141;
        const V t175 = t6 - t174;
        const V t176 = c[0] * t145;
        const V t177 = t175 + t176;
        const V t178 = c[3] * t142;
        const V t179 = c[2] * t146;
        const V t180 = t178 - t179;
        const V t181 = c[3] * t143;
        const V t182 = c[2] * t147;
        const V t183 = t181 + t182;
        const V t184 = t173 + t183;
        const V t185 = t177 - t180;
        const V t186 = t173 - t183;
        const V t187 = t177 + t180;
        // spectrum block of 25, multiplier 2
        const V t188 = c[4] * t184;
        const V t189 = c[5] * t185;
        const V t190 = t189 - t188;
        const V t191 = c[4] * t185;
        const V t192 = c[5] * t184;
        const V t193 = t192 + t191;
        const V t194 = c[6] * t168;
        const V t195 = c[7] * t169;
        const V t196 = t195 + t194;
        const V t197 = c[6] * t169;
        const V t198 = c[7] * t168;
        const V t199 = t197 - t198;
        const V t200 = c[12] * t166;
        const V t201 = c[13] * t167;
        const V t202 = t201 + t200;
        const V t203 = c[12] * t167;
        const V t204 = c[13] * t166;
        const V t205 = t203 - t204;
        const V t206 = c[14] * t186;
        const V t207 = c[15] * t187;
        const V t208 = t206 - t207;
        const V t209 = c[14] * t187;
        const V t210 = c[15] * t186;
        const V t211 = t210 + t209;
        // spectrum block of 5, multiplier 2
        const V t212 = t79 + t151;
        const V t213 = t212 + t49;
        const V t214 = c[0] * t79;
        const V t215 = c[1] * t151;
        const V t216 = t214 - t215;
        const V t217 = t216 + t49;
        const V t218 = c[2] * t78;
        const V t219 = c[3] * t150;
        const V t220 = t218 + t219;
        const V t221 = t217 - t220;
        const V t222 = t217 + t220;
        const V t223 = c[1] * t79;
        const V t224 = t49 - t223;
        const V t225 = c[0] * t151;
        const V t226 = t224 + t225;
        const V t227 = c[3] * t78;
        const V t228 = c[2] * t150;
        const V t229 = t227 - t228;
        const V t230 = t226 - t229;
        const V t231 = t226 + t229;
        // spectrum block of 5, multiplier 2
        const V t232 = t118 + t190;
        const V t233 = t232 + t66;
        const V t234 = c[0] * t118;
        const V t235 = c[1] * t190;
        const V t236 = t234 - t235;
        const V t237 = t236 + t66;
        const V t238 = c[2] * t121;
        const V t239 = c[3] * t193;
        const V t240 = t238 + t239;
        const V t241 = t237 - t240;
        const V t242 = t237 + t240;
        const V t243 = c[1] * t118;
        const V t244 = t66 - t243;
        const V t245 = c[0] * t190;
        const V t246 = t244 + t245;
        const V t247 = c[3] * t121;
        const V t248 = c[2] * t193;
        const V t249 = t247 - t248;
        const V t250 = t246 - t249;
        const V t251 = t246 + t249;
        // spectrum block of 5, multiplier 2
        const V t252 = t124 - t196;
        const V t253 = t252 + t58;
        const V t254 = c[0] * t124;
        const V t255 = c[1] * t196;
        const V t256 = t254 + t255;
        const V t257 = t256 + t58;
        const V t258 = c[2] * t127;
        const V t259 = c[3] * t199;
        const V t260 = t258 + t259;
        const V t261 = t257 - t260;
        const V t262 = t257 + t260;
        const V t263 = c[1] * t124;
        const V t264 = t58 - t263;
        const V t265 = c[0] * t196;
        const V t266 = t264 - t265;
        const V t267 = c[3] * t127;
        const V t268 = c[2] * t199;
        const V t269 = t267 - t268;
        const V t270 = t266 - t269;
        const V t271 = t266 + t269;
        // spectrum block of 5, multiplier 2
        const V t272 = t130 - t202;
        const V t273 = t272 + t57;
        const V t274 = c[0] * t130;
        const V t275 = c[1] * t202;
        const V t276 = t274 + t275;
        const V t277 = t276 + t57;
        const V t278 = c[2] * t133;
        const V t279 = c[3] * t205;
        const V t280 = t278 + t279;
        const V t281 = t277 - t280;
        const V t282 = t277 + t280;
        const V t283 = c[1] * t130;
        const V t284 = t57 - t283;
        const V t285 = c[0] * t202;
        const V t286 = t284 - t285;
        const V t287 = c[3] * t133;
        const V t288 = c[2] * t205;
        const V t289 = t287 - t288;
        const V t290 = t286 - t289;
        const V t291 = t286 + t289;
        // spectrum block of 5, multiplier 2
        const V t292 = t208 - t136;
        const V t293 = t292 + t67;
        const V t294 = c[0] * t136;
        const V t295 = t67 - t294;
        const V t296 = c[1] * t208;
        const V t297 = t295 - t296;
        const V t298 = c[2] * t139;
        const V t299 = c[3] * t211;
        const V t300 = t298 - t299;
        const V t301 = t297 - t300;
        const V t302 = t297 + t300;
        const V t303 = c[1] * t136;
        const V t304 = c[0] * t208;
        const V t305 = t303 + t304;
        const V t306 = t305 + t67;
        const V t307 = c[3] * t139;
        const V t308 = c[2] * t211;
        const V t309 = t307 + t308;
        const V t310 = t306 - t309;
        const V t311 = t306 + t309;
        // spectrum block of 5, multiplier 2
        const V t312 = t28 + t8;
        const V x25r = io.re(25);
        const V t313 = t312 + x25r;
        const V t314 = c[0] * t28;
        const V t315 = c[1] * t8;
        const V t316 = t314 - t315;
        const V t317 = t316 + x25r;
        const V t318 = c[2] * t29;
        const V t319 = c[3] * t9;
        const V t320 = t318 + t319;
        const V t321 = t317 + t320;
        const V t322 = t317 - t320;
        const V t323 = c[1] * t28;
        const V t324 = x25r - t323;
        const V t325 = c[0] * t8;
        const V t326 = t324 + t325;
        const V t327 = c[3] * t29;
        const V t328 = c[2] * t9;
        const V t329 = t328 - t327;
        const V t330 = t326 - t329;
        const V t331 = t326 + t329;
        // complex block of 5, multiplier 2
        const V t332 = t33 - t25;
        const V t333 = t24 + t32;
        const V t334 = t25 + t33;
        const V t335 = t24 - t32;
        const V t336 = t13 - t5;
        const V t337 = t12 + t4;
        const V t338 = t13 + t5;
        const V t339 = t12 - t4;
        const V t340 = t332 + t336;
        const V t341 = t333 + t337;
        const V t342 = t340 - t45;
        const V t343 = t341 + t44;
        const V t344 = c[0] * t332;
        const V t345 = c[1] * t336;
        const V t346 = t344 - t345;
        const V t347 = t346 - t45;
        const V t348 = c[0] * t333;
        const V t349 = c[1] * t337;
        const V t350 = t348 - t349;
        const V t351 = t350 + t44;
        const V t352 = c[2] * t334;
        const V t353 = c[3] * t338;
        const V t354 = t352 + t353;
        const V t355 = c[2] * t335;
        const V t356 = c[3] * t339;
        const V t357 = t355 - t356;
        const V t358 = t347 + t357;
        const V t359 = t351 + t354;
        const V t360 = t347 - t357;
        const V t361 = t351 - t354;
        const V t362 = c[1] * t332;
        const V t363 = t45 + t362;
        const V t364 = c[0] * t336;
        const V t365 = t364 - t363;
        const V t366 = c[1] * t333;
        const V t367 = t44 - t366;
        const V t368 = c[0] * t337;
        const V t369 = t367 + t368;
        const V t370 = c[3] * t334;
        const V t371 = c[2] * t338;
        const V t372 = t371 - t370;
        const V t373 = c[3] * t335;
        const V t374 = c[2] * t339;
        const V t375 = t373 + t374;
        const V t376 = t365 + t375;
        const V t377 = t369 - t372;
        const V t378 = t365 - t375;
        const V t379 = t369 + t372;
        // spectrum block of 25, multiplier 2
        const V t380 = c[8] * t376;
        const V t381 = c[9] * t377;
        const V t382 = t381 - t380;
        const V t383 = c[8] * t377;
        const V t384 = c[9] * t376;
        const V t385 = t384 + t383;
        const V t386 = c[4] * t360;
        const V t387 = c[5] * t361;
        const V t388 = t387 - t386;
        const V t389 = c[4] * t361;
        const V t390 = c[5] * t360;
        const V t391 = t390 + t389;
        const V t392 = c[10] * t358;
        const V t393 = c[11] * t359;
        const V t394 = t393 - t392;
        const V t395 = c[10] * t359;
        const V t396 = c[11] * t358;
        const V t397 = t396 + t395;
        const V t398 = c[6] * t378;
        const V t399 = c[7] * t379;
        const V t400 = t399 + t398;
        const V t401 = c[6] * t379;
        const V t402 = c[7] * t378;
        const V t403 = t401 - t402;
        // complex block of 5, multiplier 2
        const V t404 = t37 - t21;
        const V t405 = t20 + t36;
        const V t406 = t21 + t37;
        const V t407 = t20 - t36;
        const V t408 = t17 - t1;
        const V t409 = t16 + t0;
        const V t410 = t17 + t1;
        const V t411 = t16 - t0;
        const V t412 = t404 + t408;
        const V t413 = t405 + t409;
        const V t414 = t412 - t41;
        const V t415 = t413 + t40;
        const V t416 = c[0] * t404;
        const V t417 = c[1] * t408;
        const V t418 = t416 - t417;
        const V t419 = t418 - t41;
        const V t420 = c[0] * t405;
        const V t421 = c[1] * t409;
        const V t422 = t420 - t421;
        const V t423 = t422 + t40;
        const V t424 = c[2] * t406;
        const V t425 = c[3] * t410;
        const V t426 = t424 + t425;
        const V t427 = c[2] * t407;
        const V t428 = c[3] * t411;
        const V t429 = t427 - t428;
        const V t430 = t419 + t429;
        const V t431 = t423 + t426;
        const V t432 = t419 - t429;
        const V t433 = t423 - t426;
        const V t434 = c[1] * t404;
        const V t435 = t41 + t434;
        const V t436 = c[0] * t408;
        const V t437 = t436 - t435;
        const V t438 = c[1] * t405;
        const V t439 = t40 - t438;
        const V t440 = c[0] * t409;
        const V t441 = t439 + t440;
        const V t442 = c[3] * t406;
        const V t443 = c[2] * t410;
        const V t444 = t443 - t442;
        const V t445 = c[3] * t407;
        const V t446 = c[2] * t411;
        const V t447 = t445 + t446;
        const V t448 = t437 + t447;
        const V t449 = t441 - t444;
        const V t450 = t437 - t447;
        const V t451 = t441 + t444;
        // spectrum block of 25, multiplier 2
        const V t452 = c[4] * t448;
        const V t453 = c[5] * t449;
        const V t454 = t453 - t452;
        const V t455 = c[4] * t449;
        const V t456 = c[5] * t448;
        const V t457 = t456 + t455;
        const V t458 = c[6] * t432;
        const V t459 = c[7] * t433;
        const V t460 = t459 + t458;
        const V t461 = c[6] * t433;
        const V t462 = c[7] * t432;
        const V t463 = t461 - t462;
        const V t464 = c[12] * t430;
        const V t465 = c[13] * t431;
        const V t466 = t465 + t464;
        const V t467 = c[12] * t431;
        const V t468 = c[13] * t430;
        const V t469 = t467 - t468;
        const V t470 = c[14] * t450;
        const V t471 = c[15] * t451;
        const V t472 = t470 - t471;
        const V t473 = c[14] * t451;
        const V t474 = c[15] * t450;
        const V t475 = t474 + t473;
        // spectrum block of 5, multiplier 2
        const V t476 = t343 + t415;
        const V t477 = t476 + t313;
        const V t478 = c[0] * t343;
        const V t479 = c[1] * t415;
        const V t480 = t478 - t479;
        const V t481 = t480 + t313;
        const V t482 = c[2] * t342;
        const V t483 = c[3] * t414;
        const V t484 = t482 + t483;
        const V t485 = t481 - t484;
        const V t486 = t481 + t484;
        const V t487 = c[1] * t343;
        const V t488 = t313 - t487;
        const V t489 = c[0] * t415;
        const V t490 = t488 + t489;
        const V t491 = c[3] * t342;
        const V t492 = c[2] * t414;
        const V t493 = t491 - t492;
        const V t494 = t490 - t493;
        const V t495 = t490 + t493;
        // spectrum block of 5, multiplier 2
        const V t496 = t382 + t454;
        const V t497 = t496 + t330;
        const V t498 = c[0] * t382;
        const V t499 = c[1] * t454;
        const V t500 = t498 - t499;
        const V t501 = t500 + t330;
        const V t502 = c[2] * t385;
        const V t503 = c[3] * t457;
        const V t504 = t502 + t503;
        const V t505 = t501 - t504;
        const V t506 = t501 + t504;
        const V t507 = c[1] * t382;
        const V t508 = t330 - t507;
        const V t509 = c[0] * t454;
        const V t510 = t508 + t509;
        const V t511 = c[3] * t385;
        const V t512 = c[2] * t457;
        const V t513 = t511 - t512;
        const V t514 = t510 - t513;
        const V t515 = t510 + t513;
        // spectrum block of 5, multiplier 2
        const V t516 = t388 - t460;
        const V t517 = t516 + t322;
        const V t518 = c[0] * t388;
        const V t519 = c[1] * t460;
        const V t520 = t518 + t519;
        const V t521 = t520 + t322;
        const V t522 = c[2] * t391;
        const V t523 = c[3] * t463;
        const V t524 = t522 + t523;
        const V t525 = t521 - t524;
        const V t526 = t521 + t524;
        const V t527 = c[1] * t388;
        const V t528 = t322 - t527;
        const V t529 = c[0] * t460;
        const V t530 = t528 - t529;
        const V t531 = c[3] * t391;
        const V t532 = c[2] * t463;
        const V t533 = t531 - t532;
        const V t534 = t530 - t533;
        const V t535 = t530 + t533;
        // spectrum block of 5, multiplier 2
        const V t536 = t394 - t466;
        const V t537 = t536 + t321;
        const V t538 = c[0] * t394;
        const V t539 = c[1] * t466;
        const V t540 = t538 + t539;
        const V t541 = t540 + t321;
        const V t542 = c[2] * t397;
        const V t543 = c[3] * t469;
        const V t544 = t542 + t543;
        const V t545 = t541 - t544;
        const V t546 = t541 + t544;
        const V t547 = c[1] * t394;
        const V t548 = t321 - t547;
        const V t549 = c[0] * t466;
        const V t550 = t548 - t549;
        const V t551 = c[3] * t397;
        const V t552 = c[2] * t469;
        const V t553 = t551 - t552;
        const V t554 = t550 - t553;
        const V t555 = t550 + t553;
        // spectrum block of 5, multiplier 2
        const V t556 = t472 - t400;
        const V t557 = t556 + t331;
        const V t558 = c[0] * t400;
        const V t559 = t331 - t558;
        const V t560 = c[1] * t472;
        const V t561 = t559 - t560;
        const V t562 = c[2] * t403;
        const V t563 = c[3] * t475;
        const V t564 = t562 - t563;
        const V t565 = t561 - t564;
        const V t566 = t561 + t564;
        const V t567 = c[1] * t400;
        const V t568 = c[0] * t472;
        const V t569 = t567 + t568;
        const V t570 = t569 + t331;
        const V t571 = c[3] * t403;
        const V t572 = c[2] * t475;
        const V t573 = t571 + t572;
        const V t574 = t570 - t573;
        const V t575 = t570 + t573;
        // spectrum block of 2
        const V t576 = t213 + t477;
        io.out(0, t576);
        const V t577 = t213 - t477;
        io.out(25, t577);
        // spectrum block of 2
        const V t578 = t233 + t497;
        io.out(2, t578);
        const V t579 = t233 - t497;
        io.out(27, t579);
        // spectrum block of 2
        const V t580 = t253 + t517;
        io.out(4, t580);
        const V t581 = t253 - t517;
        io.out(29, t581);
        // spectrum block of 2
        const V t582 = t273 + t537;
        io.out(6, t582);
        const V t583 = t273 - t537;
        io.out(31, t583);
        // spectrum block of 2
        const V t584 = t293 + t557;
        io.out(8, t584);
        const V t585 = t293 - t557;
        io.out(33, t585);
        // spectrum block of 2
        const V t586 = t230 + t494;
        io.out(10, t586);
        const V t587 = t230 - t494;
        io.out(35, t587);
        // spectrum block of 2
        const V t588 = t250 + t514;
        io.out(12, t588);
        const V t589 = t250 - t514;
        io.out(37, t589);
        // spectrum block of 2
        const V t590 = t270 + t534;
        io.out(14, t590);
        const V t591 = t270 - t534;
        io.out(39, t591);
        // spectrum block of 2
        const V t592 = t290 + t554;
        io.out(16, t592);
        const V t593 = t290 - t554;
        io.out(41, t593);
        // spectrum block of 2
        const V t594 = t310 + t574;
        io.out(18, t594);
        const V t595 = t310 - t574;
        io.out(43, t595);
        // spectrum block of 2
        const V t596 = t222 + t486;
        io.out(20, t596);
        const V t597 = t222 - t486;
        io.out(45, t597);
        // spectrum block of 2
        const V t598 = t242 + t506;
        io.out(22, t598);
        const V t599 = t242 - t506;
        io.out(47, t599);
        // spectrum block of 2
        const V t600 = t262 + t526;
        io.out(24, t600);
        const V t601 = t262 - t526;
        io.out(49, t601);
        // spectrum block of 2
        const V t602 = t282 + t546;
        io.out(26, t602);
        const V t603 = t282 - t546;
        io.out(1, t603);
        // spectrum block of 2
        const V t604 = t302 + t566;
        io.out(28, t604);
        const V t605 = t302 - t566;
        io.out(3, t605);
        // spectrum block of 2
        const V t606 = t221 + t485;
        io.out(30, t606);
        const V t607 = t221 - t485;
        io.out(5, t607);
        // spectrum block of 2
        const V t608 = t241 + t505;
        io.out(32, t608);
        const V t609 = t241 - t505;
        io.out(7, t609);
        // spectrum block of 2
        const V t610 = t261 + t525;
        io.out(34, t610);
        const V t611 = t261 - t525;
        io.out(9, t611);
        // spectrum block of 2
        const V t612 = t281 + t545;
        io.out(36, t612);
        const V t613 = t281 - t545;
        io.out(11, t613);
        // spectrum block of 2
        const V t614 = t301 + t565;
        io.out(38, t614);
        const V t615 = t301 - t565;
        io.out(13, t615);
        // spectrum block of 2
        const V t616 = t231 + t495;
        io.out(40, t616);
        const V t617 = t231 - t495;
        io.out(15, t617);
        // spectrum block of 2
        const V t618 = t251 + t515;
        io.out(42, t618);
        const V t619 = t251 - t515;
        io.out(17, t619);
        // spectrum block of 2
        const V t620 = t271 + t535;
        io.out(44, t620);
        const V t621 = t271 - t535;
        io.out(19, t621);
        // spectrum block of 2
        const V t622 = t291 + t555;
        io.out(46, t622);
        const V t623 = t291 - t555;
        io.out(21, t623);
        // spectrum block of 2
        const V t624 = t311 + t575;
        io.out(48, t624);
        const V t625 = t311 - t575;
        io.out(23, t625);
    }
};

}  // namespace zulg
