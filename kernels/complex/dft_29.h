// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 29.
// Complex DFT of 29 points, Rader block.
// 332 additions, 324 subtractions, 396 multiplications (454 with `scale`); 34 constants; 68 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<29> {
    static constexpr int steps = 1110;  // with `scale`
    static constexpr double inverseRoot = 0.18569533817705186;  // 1/sqrt(29), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.2768145884649087,  // c[6]: P[1] of 29
        0.2670821358430261,  // c[7]: Q[1] of 29
        0.32142566997698113,  // c[8]: Q[2] of 29
        0.21129297752958617,  // c[9]: P[2] of 29
        0.29302504444220384,  // c[10]: P[3] of 29
        0.2491897008367598,  // c[11]: -Q[3] of 29
        0.19919633623825483,  // c[12]: Q[4] of 29
        0.3290592701972177,  // c[13]: P[4] of 29
        0.26862162181749166,  // c[14]: P[5] of 29
        0.27532091814028564,  // c[15]: Q[5] of 29
        0.35927022128602587,  // c[16]: Q[6] of 29
        0.13741940099767344,  // c[17]: P[6] of 29
        0.07274108340629196,  // c[18]: -P[7] of 29
        0.3777140697119294,  // c[19]: -Q[7] of 29
        0.21267702351981235,  // c[20]: Q[8] of 29
        0.3205115713047231,  // c[21]: -P[8] of 29
        0.035220206650882144,  // c[22]: P[9] of 29
        0.38303879792644835,  // c[23]: Q[9] of 29
        0.0825185747421179,  // c[24]: -Q[10] of 29
        0.37569917287106036,  // c[25]: P[10] of 29
        0.25511870438911255,  // c[26]: -P[11] of 29
        0.28787780453569184,  // c[27]: Q[11] of 29
        0.37467556794599116,  // c[28]: Q[12] of 29
        0.0870482765930398,  // c[29]: P[12] of 29
        0.0999373031094614,  // c[30]: -P[13] of 29
        0.3714454456857387,  // c[31]: -Q[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x28r = io.re(28);
        const V t0 = x1r + x28r;
        const V t1 = x1r - x28r;
        // real block of 2
        const V x12r = io.re(12);
        const V x17r = io.re(17);
        const V t2 = x12r + x17r;
        const V t3 = x12r - x17r;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x16r = io.re(16);
        const V x13r = io.re(13);
        const V t6 = x16r + x13r;
        const V t7 = x16r - x13r;
        // real block of 2
        const V x18r = io.re(18);
        const V x11r = io.re(11);
        const V t8 = x18r + x11r;
        const V t9 = x18r - x11r;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x24r = io.re(24);
        const V x5r = io.re(5);
        const V t12 = x24r + x5r;
        const V t13 = x24r - x5r;
        // real block of 2
        const V x27r = io.re(27);
        const V x2r = io.re(2);
        const V t14 = x27r + x2r;
        const V t15 = x27r - x2r;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x7r = io.re(7);
        const V x22r = io.re(22);
        const V t18 = x7r + x22r;
        const V t19 = x7r - x22r;
        // real block of 2
        const V x26r = io.re(26);
        const V x3r = io.re(3);
        const V t20 = x26r + x3r;
        const V t21 = x26r - x3r;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V x25r = io.re(25);
        const V x4r = io.re(4);
        const V t24 = x25r + x4r;
        const V t25 = x25r - x4r;
        // real block of 2
        const V x10r = io.re(10);
        const V x19r = io.re(19);
        const V t26 = x10r + x19r;
        const V t27 = x10r - x19r;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 2
        const V x23r = io.re(23);
        const V x6r = io.re(6);
        const V t30 = x23r + x6r;
        const V t31 = x23r - x6r;
        // real block of 2
        const V x15r = io.re(15);
        const V x14r = io.re(14);
        const V t32 = x15r + x14r;
        const V t33 = x15r - x14r;
        // real block of 2
        const V t34 = t30 + t32;
        const V t35 = t30 - t32;
        // real block of 2
        const V x20r = io.re(20);
        const V x9r = io.re(9);
        const V t36 = x20r + x9r;
        const V t37 = x20r - x9r;
        // real block of 2
        const V x8r = io.re(8);
        const V x21r = io.re(21);
        const V t38 = x8r + x21r;
        const V t39 = x8r - x21r;
        // real block of 2
        const V t40 = t36 + t38;
        const V t41 = t36 - t38;
        // real block of 7, multiplier 4
        const V t42 = t10 + t40;
        const V t43 = t10 - t40;
        const V t44 = t34 + t16;
        const V t45 = t34 - t16;
        const V t46 = t28 + t22;
        const V t47 = t28 - t22;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V t50 = t49 + t4;
        const V t51 = c[0] * t42;
        const V t52 = t4 - t51;
        const V t53 = c[1] * t44;
        const V t54 = t52 + t53;
        const V t55 = c[2] * t46;
        const V t56 = t54 - t55;
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t57 + t58;
        const V t61 = t60 - t59;
        const V t62 = c[1] * t42;
        const V t63 = c[2] * t44;
        const V t64 = t62 - t63;
        const V t65 = c[0] * t46;
        const V t66 = t64 - t65;
        const V t67 = t66 + t4;
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t69 + t70;
        const V t72 = t71 - t68;
        const V t73 = c[2] * t42;
        const V t74 = t4 - t73;
        const V t75 = c[0] * t44;
        const V t76 = t74 - t75;
        const V t77 = c[1] * t46;
        const V t78 = t76 + t77;
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t79 + t80;
        const V t83 = t82 + t81;
        // complex block of 7, multiplier 4
        const V t84 = t7 + t37;
        const V t85 = t9 + t39;
        const V t86 = t7 - t37;
        const V t87 = t9 - t39;
        const V t88 = t31 + t13;
        const V t89 = t33 + t15;
        const V t90 = t31 - t13;
        const V t91 = t33 - t15;
        const V t92 = t25 + t19;
        const V t93 = t27 + t21;
        const V t94 = t25 - t19;
        const V t95 = t27 - t21;
        const V t96 = t84 + t88;
        const V t97 = t96 + t92;
        const V t98 = t85 + t89;
        const V t99 = t98 + t93;
        const V t100 = t97 + t1;
        const V t101 = t99 + t3;
        const V t102 = c[1] * t84;
        const V t103 = c[2] * t88;
        const V t104 = t102 - t103;
        const V t105 = c[0] * t92;
        const V t106 = t104 - t105;
        const V t107 = t106 + t1;
        const V t108 = c[1] * t85;
        const V t109 = c[2] * t89;
        const V t110 = t108 - t109;
        const V t111 = c[0] * t93;
        const V t112 = t110 - t111;
        const V t113 = t112 + t3;
        const V t114 = c[4] * t86;
        const V t115 = c[5] * t90;
        const V t116 = t114 - t115;
        const V t117 = c[3] * t94;
        const V t118 = t116 - t117;
        const V t119 = c[4] * t87;
        const V t120 = c[5] * t91;
        const V t121 = t119 - t120;
        const V t122 = c[3] * t95;
        const V t123 = t121 - t122;
        const V t124 = t107 + t123;
        const V t125 = t113 - t118;
        const V t126 = t107 - t123;
        const V t127 = t113 + t118;
        const V t128 = c[2] * t84;
        const V t129 = t1 - t128;
        const V t130 = c[0] * t88;
        const V t131 = t129 - t130;
        const V t132 = c[1] * t92;
        const V t133 = t131 + t132;
        const V t134 = c[2] * t85;
        const V t135 = t3 - t134;
        const V t136 = c[0] * t89;
        const V t137 = t135 - t136;
        const V t138 = c[1] * t93;
        const V t139 = t137 + t138;
        const V t140 = c[5] * t86;
        const V t141 = c[3] * t90;
        const V t142 = t140 + t141;
        const V t143 = c[4] * t94;
        const V t144 = t142 + t143;
        const V t145 = c[5] * t87;
        const V t146 = c[3] * t91;
        const V t147 = t145 + t146;
        const V t148 = c[4] * t95;
        const V t149 = t147 + t148;
        const V t150 = t133 + t149;
        const V t151 = t139 - t144;
        const V t152 = t133 - t149;
        const V t153 = t139 + t144;
        const V t154 = c[0] * t84;
        const V t155 = t1 - t154;
        const V t156 = c[1] * t88;
        const V t157 = t155 + t156;
        const V t158 = c[2] * t92;
        const V t159 = t157 - t158;
        const V t160 = c[0] * t85;
        const V t161 = t3 - t160;
        const V t162 = c[1] * t89;
        const V t163 = t161 + t162;
        const V t164 = c[2] * t93;
        const V t165 = t163 - t164;
        const V t166 = c[3] * t86;
        const V t167 = c[4] * t90;
        const V t168 = t166 + t167;
        const V t169 = c[5] * t94;
        const V t170 = t168 - t169;
        const V t171 = c[3] * t87;
        const V t172 = c[4] * t91;
        const V t173 = t171 + t172;
        const V t174 = c[5] * t95;
        const V t175 = t173 - t174;
        const V t176 = t159 + t175;
        const V t177 = t165 - t170;
        const V t178 = t159 - t175;
        const V t179 = t165 + t170;
        // real block of 7, multiplier 4
        const V t180 = t11 + t41;
        const V t181 = t11 - t41;
        const V t182 = t35 + t17;
        const V t183 = t35 - t17;
        const V t184 = t29 + t23;
        const V t185 = t29 - t23;
        const V t186 = t180 + t182;
        const V t187 = t186 + t184;
        const V t188 = t187 + t5;
        const V t189 = c[0] * t180;
        const V t190 = t5 - t189;
        const V t191 = c[1] * t182;
        const V t192 = t190 + t191;
        const V t193 = c[2] * t184;
        const V t194 = t192 - t193;
        const V t195 = c[3] * t181;
        const V t196 = c[4] * t183;
        const V t197 = c[5] * t185;
        const V t198 = t195 + t196;
        const V t199 = t198 - t197;
        const V t200 = c[1] * t180;
        const V t201 = c[2] * t182;
        const V t202 = t200 - t201;
        const V t203 = c[0] * t184;
        const V t204 = t202 - t203;
        const V t205 = t204 + t5;
        const V t206 = c[4] * t181;
        const V t207 = c[5] * t183;
        const V t208 = c[3] * t185;
        const V t209 = t207 + t208;
        const V t210 = t209 - t206;
        const V t211 = c[2] * t180;
        const V t212 = t5 - t211;
        const V t213 = c[0] * t182;
        const V t214 = t212 - t213;
        const V t215 = c[1] * t184;
        const V t216 = t214 + t215;
        const V t217 = c[5] * t181;
        const V t218 = c[3] * t183;
        const V t219 = c[4] * t185;
        const V t220 = t217 + t218;
        const V t221 = t220 + t219;
        // real block of 2
        const V x1i = io.im(1);
        const V x28i = io.im(28);
        const V t222 = x1i + x28i;
        const V t223 = x1i - x28i;
        // real block of 2
        const V x12i = io.im(12);
        const V x17i = io.im(17);
        const V t224 = x12i + x17i;
        const V t225 = x12i - x17i;
        // real block of 2
        const V t226 = t222 + t224;
        const V t227 = t222 - t224;
        // real block of 2
        const V x16i = io.im(16);
        const V x13i = io.im(13);
        const V t228 = x16i + x13i;
        const V t229 = x16i - x13i;
        // real block of 2
        const V x18i = io.im(18);
        const V x11i = io.im(11);
        const V t230 = x18i + x11i;
        const V t231 = x18i - x11i;
        // real block of 2
        const V t232 = t228 + t230;
        const V t233 = t228 - t230;
        // real block of 2
        const V x24i = io.im(24);
        const V x5i = io.im(5);
        const V t234 = x24i + x5i;
        const V t235 = x24i - x5i;
        // real block of 2
        const V x27i = io.im(27);
        const V x2i = io.im(2);
        const V t236 = x27i + x2i;
        const V t237 = x27i - x2i;
        // real block of 2
        const V t238 = t234 + t236;
        const V t239 = t234 - t236;
        // real block of 2
        const V x7i = io.im(7);
        const V x22i = io.im(22);
        const V t240 = x7i + x22i;
        const V t241 = x7i - x22i;
        // real block of 2
        const V x26i = io.im(26);
        const V x3i = io.im(3);
        const V t242 = x26i + x3i;
        const V t243 = x26i - x3i;
        // real block of 2
        const V t244 = t240 + t242;
        const V t245 = t240 - t242;
        // real block of 2
        const V x25i = io.im(25);
        const V x4i = io.im(4);
        const V t246 = x25i + x4i;
        const V t247 = x25i - x4i;
        // real block of 2
        const V x10i = io.im(10);
        const V x19i = io.im(19);
        const V t248 = x10i + x19i;
        const V t249 = x10i - x19i;
        // real block of 2
        const V t250 = t246 + t248;
        const V t251 = t246 - t248;
        // real block of 2
        const V x23i = io.im(23);
        const V x6i = io.im(6);
        const V t252 = x23i + x6i;
        const V t253 = x23i - x6i;
        // real block of 2
        const V x15i = io.im(15);
        const V x14i = io.im(14);
        const V t254 = x15i + x14i;
        const V t255 = x15i - x14i;
        // real block of 2
        const V t256 = t252 + t254;
        const V t257 = t252 - t254;
        // real block of 2
        const V x20i = io.im(20);
        const V x9i = io.im(9);
        const V t258 = x20i + x9i;
        const V t259 = x20i - x9i;
        // real block of 2
        const V x8i = io.im(8);
        const V x21i = io.im(21);
        const V t260 = x8i + x21i;
        const V t261 = x8i - x21i;
        // real block of 2
        const V t262 = t258 + t260;
        const V t263 = t258 - t260;
        // real block of 7, multiplier 4
        const V t264 = t232 + t262;
        const V t265 = t232 - t262;
        const V t266 = t256 + t238;
        const V t267 = t256 - t238;
        const V t268 = t250 + t244;
        const V t269 = t250 - t244;
        const V t270 = t264 + t266;
        const V t271 = t270 + t268;
        const V t272 = t271 + t226;
        const V t273 = c[0] * t264;
        const V t274 = t226 - t273;
        const V t275 = c[1] * t266;
        const V t276 = t274 + t275;
        const V t277 = c[2] * t268;
        const V t278 = t276 - t277;
        const V t279 = c[3] * t265;
        const V t280 = c[4] * t267;
        const V t281 = c[5] * t269;
        const V t282 = t279 + t280;
        const V t283 = t282 - t281;
        const V t284 = c[1] * t264;
        const V t285 = c[2] * t266;
        const V t286 = t284 - t285;
        const V t287 = c[0] * t268;
        const V t288 = t286 - t287;
        const V t289 = t288 + t226;
        const V t290 = c[4] * t265;
        const V t291 = c[5] * t267;
        const V t292 = c[3] * t269;
        const V t293 = t291 + t292;
        const V t294 = t293 - t290;
        const V t295 = c[2] * t264;
        const V t296 = t226 - t295;
        const V t297 = c[0] * t266;
        const V t298 = t296 - t297;
        const V t299 = c[1] * t268;
        const V t300 = t298 + t299;
        const V t301 = c[5] * t265;
        const V t302 = c[3] * t267;
        const V t303 = c[4] * t269;
        const V t304 = t301 + t302;
        const V t305 = t304 + t303;
        // complex block of 7, multiplier 4
        const V t306 = t229 + t259;
        const V t307 = t231 + t261;
        const V t308 = t229 - t259;
        const V t309 = t231 - t261;
        const V t310 = t253 + t235;
        const V t311 = t255 + t237;
        const V t312 = t253 - t235;
        const V t313 = t255 - t237;
        const V t314 = t247 + t241;
        const V t315 = t249 + t243;
        const V t316 = t247 - t241;
        const V t317 = t249 - t243;
        const V t318 = t306 + t310;
        const V t319 = t318 + t314;
        const V t320 = t307 + t311;
        const V t321 = t320 + t315;
        const V t322 = t319 + t223;
        const V t323 = t321 + t225;
        const V t324 = c[1] * t306;
        const V t325 = c[2] * t310;
        const V t326 = t324 - t325;
        const V t327 = c[0] * t314;
        const V t328 = t326 - t327;
        const V t329 = t328 + t223;
        const V t330 = c[1] * t307;
        const V t331 = c[2] * t311;
        const V t332 = t330 - t331;
        const V t333 = c[0] * t315;
        const V t334 = t332 - t333;
        const V t335 = t334 + t225;
        const V t336 = c[4] * t308;
        const V t337 = c[5] * t312;
        const V t338 = t336 - t337;
        const V t339 = c[3] * t316;
        const V t340 = t338 - t339;
        const V t341 = c[4] * t309;
        const V t342 = c[5] * t313;
        const V t343 = t341 - t342;
        const V t344 = c[3] * t317;
        const V t345 = t343 - t344;
        const V t346 = t329 + t345;
        const V t347 = t335 - t340;
        const V t348 = t329 - t345;
        const V t349 = t335 + t340;
        const V t350 = c[2] * t306;
        const V t351 = t223 - t350;
        const V t352 = c[0] * t310;
        const V t353 = t351 - t352;
        const V t354 = c[1] * t314;
        const V t355 = t353 + t354;
        const V t356 = c[2] * t307;
        const V t357 = t225 - t356;
        const V t358 = c[0] * t311;
        const V t359 = t357 - t358;
        const V t360 = c[1] * t315;
        const V t361 = t359 + t360;
        const V t362 = c[5] * t308;
        const V t363 = c[3] * t312;
        const V t364 = t362 + t363;
        const V t365 = c[4] * t316;
        const V t366 = t364 + t365;
        const V t367 = c[5] * t309;
        const V t368 = c[3] * t313;
        const V t369 = t367 + t368;
        const V t370 = c[4] * t317;
        const V t371 = t369 + t370;
        const V t372 = t355 + t371;
        const V t373 = t361 - t366;
        const V t374 = t355 - t371;
        const V t375 = t361 + t366;
        const V t376 = c[0] * t306;
        const V t377 = t223 - t376;
        const V t378 = c[1] * t310;
        const V t379 = t377 + t378;
        const V t380 = c[2] * t314;
        const V t381 = t379 - t380;
        const V t382 = c[0] * t307;
        const V t383 = t225 - t382;
        const V t384 = c[1] * t311;
        const V t385 = t383 + t384;
        const V t386 = c[2] * t315;
        const V t387 = t385 - t386;
        const V t388 = c[3] * t308;
        const V t389 = c[4] * t312;
        const V t390 = t388 + t389;
        const V t391 = c[5] * t316;
        const V t392 = t390 - t391;
        const V t393 = c[3] * t309;
        const V t394 = c[4] * t313;
        const V t395 = t393 + t394;
        const V t396 = c[5] * t317;
        const V t397 = t395 - t396;
        const V t398 = t381 + t397;
        const V t399 = t387 - t392;
        const V t400 = t381 - t397;
        const V t401 = t387 + t392;
        // real block of 7, multiplier 4
        const V t402 = t233 + t263;
        const V t403 = t233 - t263;
        const V t404 = t257 + t239;
        const V t405 = t257 - t239;
        const V t406 = t251 + t245;
        const V t407 = t251 - t245;
        const V t408 = t402 + t404;
        const V t409 = t408 + t406;
        const V t410 = t409 + t227;
        const V t411 = c[0] * t402;
        const V t412 = t227 - t411;
        const V t413 = c[1] * t404;
        const V t414 = t412 + t413;
        const V t415 = c[2] * t406;
        const V t416 = t414 - t415;
        const V t417 = c[3] * t403;
        const V t418 = c[4] * t405;
        const V t419 = c[5] * t407;
        const V t420 = t417 + t418;
        const V t421 = t420 - t419;
        const V t422 = c[1] * t402;
        const V t423 = c[2] * t404;
        const V t424 = t422 - t423;
        const V t425 = c[0] * t406;
        const V t426 = t424 - t425;
        const V t427 = t426 + t227;
        const V t428 = c[4] * t403;
        const V t429 = c[5] * t405;
        const V t430 = c[3] * t407;
        const V t431 = t429 + t430;
        const V t432 = t431 - t428;
        const V t433 = c[2] * t402;
        const V t434 = t227 - t433;
        const V t435 = c[0] * t404;
        const V t436 = t434 - t435;
        const V t437 = c[1] * t406;
        const V t438 = t436 + t437;
        const V t439 = c[5] * t403;
        const V t440 = c[3] * t405;
        const V t441 = c[4] * t407;
        const V t442 = t439 + t440;
        const V t443 = t442 + t441;
        // complex block of 29
        const V x0r = io.re(0);
        const V t444 = x0r + t50;
        const V x0i = io.im(0);
        io.re(0, t444);
        const V t445 = x0i + t272;
        io.im(0, t445);
        const V t446 = c[32] * t50;
        const V t447 = x0r - t446;
        const V t448 = c[32] * t272;
        const V t449 = x0i - t448;
        const V t450 = c[6] * t349;
        const V t451 = c[7] * t348;
        const V t452 = t451 + t450;
        const V t453 = c[6] * t348;
        const V t454 = c[7] * t349;
        const V t455 = t453 - t454;
        const V t456 = c[6] * t127;
        const V t457 = c[7] * t126;
        const V t458 = t457 + t456;
        const V t459 = c[6] * t126;
        const V t460 = c[7] * t127;
        const V t461 = t460 - t459;
        const V t462 = c[8] * t221;
        const V t463 = c[9] * t216;
        const V t464 = t463 + t462;
        const V t465 = c[8] * t216;
        const V t466 = c[9] * t221;
        const V t467 = t465 - t466;
        const V t468 = c[8] * t443;
        const V t469 = c[9] * t438;
        const V t470 = t469 + t468;
        const V t471 = c[8] * t438;
        const V t472 = c[9] * t443;
        const V t473 = t471 - t472;
        const V t474 = c[10] * t399;
        const V t475 = c[11] * t398;
        const V t476 = t475 + t474;
        const V t477 = c[10] * t398;
        const V t478 = c[11] * t399;
        const V t479 = t477 - t478;
        const V t480 = c[10] * t177;
        const V t481 = c[11] * t176;
        const V t482 = t481 + t480;
        const V t483 = c[10] * t176;
        const V t484 = c[11] * t177;
        const V t485 = t484 - t483;
        const V t486 = c[12] * t61;
        const V t487 = c[13] * t56;
        const V t488 = t487 - t486;
        const V t489 = c[12] * t56;
        const V t490 = c[13] * t61;
        const V t491 = t490 + t489;
        const V t492 = c[12] * t283;
        const V t493 = c[13] * t278;
        const V t494 = t493 - t492;
        const V t495 = c[12] * t278;
        const V t496 = c[13] * t283;
        const V t497 = t496 + t495;
        const V t498 = c[14] * t373;
        const V t499 = c[15] * t372;
        const V t500 = t499 + t498;
        const V t501 = c[14] * t372;
        const V t502 = c[15] * t373;
        const V t503 = t501 - t502;
        const V t504 = c[14] * t151;
        const V t505 = c[15] * t150;
        const V t506 = t505 + t504;
        const V t507 = c[14] * t150;
        const V t508 = c[15] * t151;
        const V t509 = t508 - t507;
        const V t510 = c[16] * t210;
        const V t511 = c[17] * t205;
        const V t512 = t511 + t510;
        const V t513 = c[16] * t205;
        const V t514 = c[17] * t210;
        const V t515 = t513 - t514;
        const V t516 = c[16] * t432;
        const V t517 = c[17] * t427;
        const V t518 = t517 + t516;
        const V t519 = c[16] * t427;
        const V t520 = c[17] * t432;
        const V t521 = t519 - t520;
        const V t522 = c[18] * t323;
        const V t523 = c[19] * t322;
        const V t524 = t522 - t523;
        const V t525 = c[18] * t322;
        const V t526 = c[19] * t323;
        const V t527 = t526 + t525;
        const V t528 = c[18] * t101;
        const V t529 = c[19] * t100;
        const V t530 = t529 - t528;
        const V t531 = c[18] * t100;
        const V t532 = c[19] * t101;
        const V t533 = t532 + t531;
        const V t534 = c[20] * t72;
        const V t535 = c[21] * t67;
        const V t536 = t535 + t534;
        const V t537 = c[20] * t67;
        const V t538 = c[21] * t72;
        const V t539 = t537 - t538;
        const V t540 = c[20] * t294;
        const V t541 = c[21] * t289;
        const V t542 = t541 + t540;
        const V t543 = c[20] * t289;
        const V t544 = c[21] * t294;
        const V t545 = t543 - t544;
        const V t546 = c[22] * t375;
        const V t547 = c[23] * t374;
        const V t548 = t547 + t546;
        const V t549 = c[22] * t374;
        const V t550 = c[23] * t375;
        const V t551 = t549 - t550;
        const V t552 = c[22] * t153;
        const V t553 = c[23] * t152;
        const V t554 = t553 + t552;
        const V t555 = c[22] * t152;
        const V t556 = c[23] * t153;
        const V t557 = t556 - t555;
        const V t558 = c[24] * t199;
        const V t559 = c[25] * t194;
        const V t560 = t559 - t558;
        const V t561 = c[24] * t194;
        const V t562 = c[25] * t199;
        const V t563 = t562 + t561;
        const V t564 = c[24] * t421;
        const V t565 = c[25] * t416;
        const V t566 = t565 - t564;
        const V t567 = c[24] * t416;
        const V t568 = c[25] * t421;
        const V t569 = t568 + t567;
        const V t570 = c[26] * t401;
        const V t571 = c[27] * t400;
        const V t572 = t571 + t570;
        const V t573 = c[26] * t400;
        const V t574 = c[27] * t401;
        const V t575 = t574 - t573;
        const V t576 = c[26] * t179;
        const V t577 = c[27] * t178;
        const V t578 = t577 + t576;
        const V t579 = c[26] * t178;
        const V t580 = c[27] * t179;
        const V t581 = t579 - t580;
        const V t582 = c[28] * t83;
        const V t583 = c[29] * t78;
        const V t584 = t583 - t582;
        const V t585 = c[28] * t78;
        const V t586 = c[29] * t83;
        const V t587 = t586 + t585;
        const V t588 = c[28] * t305;
        const V t589 = c[29] * t300;
        const V t590 = t589 - t588;
        const V t591 = c[28] * t300;
        const V t592 = c[29] * t305;
        const V t593 = t592 + t591;
        const V t594 = c[30] * t347;
        const V t595 = c[31] * t346;
        const V t596 = t595 + t594;
        const V t597 = c[30] * t346;
        const V t598 = c[31] * t347;
        const V t599 = t598 - t597;
        const V t600 = c[30] * t125;
        const V t601 = c[31] * t124;
        const V t602 = t601 + t600;
        const V t603 = c[30] * t124;
        const V t604 = c[31] * t125;
        const V t605 = t603 - t604;
        const V t606 = c[33] * t188;
        const V t607 = c[33] * t410;
        // spectrum block of 2
        const V t608 = t447 + t606;
        const V t609 = t447 - t606;
        // spectrum block of 2
        const V t610 = t608 + t524;
        const V t611 = t608 - t524;
        // spectrum block of 2
        const V t612 = t609 - t527;
        const V t613 = t609 + t527;
        // complex block of 2
        const V t614 = t491 + t563;
        const V t615 = t488 + t560;
        const V t616 = t491 - t563;
        const V t617 = t488 - t560;
        // complex block of 2
        const V t618 = t575 - t479;
        const V t619 = t572 - t476;
        const V t620 = t575 + t479;
        const V t621 = t572 + t476;
        // complex block of 2
        const V t622 = t614 + t618;
        const V t623 = t615 + t619;
        const V t624 = t614 - t618;
        const V t625 = t615 - t619;
        // complex block of 2
        const V t626 = t616 - t621;
        const V t627 = t617 + t620;
        const V t628 = t616 + t621;
        const V t629 = t617 - t620;
        // complex block of 2
        const V t630 = t539 - t515;
        const V t631 = t512 - t536;
        const V t632 = t539 + t515;
        const V t633 = t536 + t512;
        // complex block of 2
        const V t634 = t455 - t599;
        const V t635 = t452 - t596;
        const V t636 = t599 + t455;
        const V t637 = t596 + t452;
        // complex block of 2
        const V t638 = t630 + t634;
        const V t639 = t631 + t635;
        const V t640 = t630 - t634;
        const V t641 = t631 - t635;
        // complex block of 2
        const V t642 = t632 + t637;
        const V t643 = t633 + t636;
        const V t644 = t632 - t637;
        const V t645 = t636 - t633;
        // complex block of 2
        const V t646 = t587 - t467;
        const V t647 = t584 + t464;
        const V t648 = t587 + t467;
        const V t649 = t584 - t464;
        // complex block of 2
        const V t650 = t503 - t551;
        const V t651 = t548 + t500;
        const V t652 = t551 + t503;
        const V t653 = t548 - t500;
        // complex block of 2
        const V t654 = t646 + t650;
        const V t655 = t647 + t651;
        const V t656 = t646 - t650;
        const V t657 = t647 - t651;
        // complex block of 2
        const V t658 = t648 - t653;
        const V t659 = t649 - t652;
        const V t660 = t648 + t653;
        const V t661 = t649 + t652;
        // spectrum block of 7, multiplier 4
        const V t662 = t623 + t639;
        const V t663 = t662 + t655;
        const V t664 = t663 + t610;
        io.re(1, t664);
        const V t665 = c[1] * t623;
        const V t666 = c[2] * t639;
        const V t667 = t665 - t666;
        const V t668 = c[0] * t655;
        const V t669 = t667 - t668;
        const V t670 = t669 + t610;
        const V t671 = c[4] * t622;
        const V t672 = c[5] * t638;
        const V t673 = t671 + t672;
        const V t674 = c[3] * t654;
        const V t675 = t673 + t674;
        const V t676 = t670 - t675;
        io.re(23, t676);
        const V t677 = t670 + t675;
        io.re(24, t677);
        const V t678 = c[2] * t623;
        const V t679 = t610 - t678;
        const V t680 = c[0] * t639;
        const V t681 = t679 - t680;
        const V t682 = c[1] * t655;
        const V t683 = t681 + t682;
        const V t684 = c[5] * t622;
        const V t685 = c[3] * t638;
        const V t686 = t684 - t685;
        const V t687 = c[4] * t654;
        const V t688 = t686 - t687;
        const V t689 = t683 - t688;
        io.re(7, t689);
        const V t690 = t683 + t688;
        io.re(25, t690);
        const V t691 = c[0] * t623;
        const V t692 = t610 - t691;
        const V t693 = c[1] * t639;
        const V t694 = t692 + t693;
        const V t695 = c[2] * t655;
        const V t696 = t694 - t695;
        const V t697 = c[3] * t622;
        const V t698 = c[4] * t638;
        const V t699 = t697 - t698;
        const V t700 = c[5] * t654;
        const V t701 = t699 + t700;
        const V t702 = t696 - t701;
        io.re(16, t702);
        const V t703 = t696 + t701;
        io.re(20, t703);
        // spectrum block of 7, multiplier 4
        const V t704 = t627 - t643;
        const V t705 = t704 + t659;
        const V t706 = t705 + t612;
        io.re(17, t706);
        const V t707 = c[1] * t627;
        const V t708 = c[2] * t643;
        const V t709 = t707 + t708;
        const V t710 = c[0] * t659;
        const V t711 = t709 - t710;
        const V t712 = t711 + t612;
        const V t713 = c[4] * t626;
        const V t714 = c[5] * t642;
        const V t715 = t713 + t714;
        const V t716 = c[3] * t658;
        const V t717 = t715 + t716;
        const V t718 = t712 - t717;
        io.re(14, t718);
        const V t719 = t712 + t717;
        io.re(2, t719);
        const V t720 = c[2] * t627;
        const V t721 = t612 - t720;
        const V t722 = c[0] * t643;
        const V t723 = t721 + t722;
        const V t724 = c[1] * t659;
        const V t725 = t723 + t724;
        const V t726 = c[5] * t626;
        const V t727 = c[3] * t642;
        const V t728 = t726 - t727;
        const V t729 = c[4] * t658;
        const V t730 = t728 - t729;
        const V t731 = t725 - t730;
        io.re(3, t731);
        const V t732 = t725 + t730;
        io.re(19, t732);
        const V t733 = c[0] * t627;
        const V t734 = t612 - t733;
        const V t735 = c[1] * t643;
        const V t736 = t734 - t735;
        const V t737 = c[2] * t659;
        const V t738 = t736 - t737;
        const V t739 = c[3] * t626;
        const V t740 = c[4] * t642;
        const V t741 = t739 - t740;
        const V t742 = c[5] * t658;
        const V t743 = t741 + t742;
        const V t744 = t738 - t743;
        io.re(11, t744);
        const V t745 = t738 + t743;
        io.re(21, t745);
        // spectrum block of 7, multiplier 4
        const V t746 = t625 + t641;
        const V t747 = t746 + t657;
        const V t748 = t747 + t611;
        io.re(28, t748);
        const V t749 = c[1] * t625;
        const V t750 = c[2] * t641;
        const V t751 = t749 - t750;
        const V t752 = c[0] * t657;
        const V t753 = t751 - t752;
        const V t754 = t753 + t611;
        const V t755 = c[4] * t624;
        const V t756 = c[5] * t640;
        const V t757 = t755 + t756;
        const V t758 = c[3] * t656;
        const V t759 = t757 + t758;
        const V t760 = t754 - t759;
        io.re(6, t760);
        const V t761 = t754 + t759;
        io.re(5, t761);
        const V t762 = c[2] * t625;
        const V t763 = t611 - t762;
        const V t764 = c[0] * t641;
        const V t765 = t763 - t764;
        const V t766 = c[1] * t657;
        const V t767 = t765 + t766;
        const V t768 = c[5] * t624;
        const V t769 = c[3] * t640;
        const V t770 = t768 - t769;
        const V t771 = c[4] * t656;
        const V t772 = t770 - t771;
        const V t773 = t767 - t772;
        io.re(22, t773);
        const V t774 = t767 + t772;
        io.re(4, t774);
        const V t775 = c[0] * t625;
        const V t776 = t611 - t775;
        const V t777 = c[1] * t641;
        const V t778 = t776 + t777;
        const V t779 = c[2] * t657;
        const V t780 = t778 - t779;
        const V t781 = c[3] * t624;
        const V t782 = c[4] * t640;
        const V t783 = t781 - t782;
        const V t784 = c[5] * t656;
        const V t785 = t783 + t784;
        const V t786 = t780 - t785;
        io.re(13, t786);
        const V t787 = t780 + t785;
        io.re(9, t787);
        // spectrum block of 7, multiplier 4
        const V t788 = t629 + t645;
        const V t789 = t788 + t661;
        const V t790 = t789 + t613;
        io.re(12, t790);
        const V t791 = c[1] * t629;
        const V t792 = c[2] * t645;
        const V t793 = t791 - t792;
        const V t794 = c[0] * t661;
        const V t795 = t793 - t794;
        const V t796 = t795 + t613;
        const V t797 = c[4] * t628;
        const V t798 = c[5] * t644;
        const V t799 = t797 + t798;
        const V t800 = c[3] * t660;
        const V t801 = t799 + t800;
        const V t802 = t796 - t801;
        io.re(15, t802);
        const V t803 = t796 + t801;
        io.re(27, t803);
        const V t804 = c[2] * t629;
        const V t805 = t613 - t804;
        const V t806 = c[0] * t645;
        const V t807 = t805 - t806;
        const V t808 = c[1] * t661;
        const V t809 = t807 + t808;
        const V t810 = c[5] * t628;
        const V t811 = c[3] * t644;
        const V t812 = t810 - t811;
        const V t813 = c[4] * t660;
        const V t814 = t812 - t813;
        const V t815 = t809 - t814;
        io.re(26, t815);
        const V t816 = t809 + t814;
        io.re(10, t816);
        const V t817 = c[0] * t629;
        const V t818 = t613 - t817;
        const V t819 = c[1] * t645;
        const V t820 = t818 + t819;
        const V t821 = c[2] * t661;
        const V t822 = t820 - t821;
        const V t823 = c[3] * t628;
        const V t824 = c[4] * t644;
        const V t825 = t823 - t824;
        const V t826 = c[5] * t660;
        const V t827 = t825 + t826;
        const V t828 = t822 - t827;
        io.re(18, t828);
        const V t829 = t822 + t827;
        io.re(8, t829);
        // spectrum block of 2
        const V t830 = t449 + t607;
        const V t831 = t449 - t607;
        // spectrum block of 2
        const V t832 = t830 + t530;
        const V t833 = t830 - t530;
        // spectrum block of 2
        const V t834 = t831 + t533;
        const V t835 = t831 - t533;
        // complex block of 2
        const V t836 = t497 + t569;
        const V t837 = t494 + t566;
        const V t838 = t497 - t569;
        const V t839 = t494 - t566;
        // complex block of 2
        const V t840 = t581 - t485;
        const V t841 = t482 - t578;
        const V t842 = t581 + t485;
        const V t843 = t578 + t482;
        // complex block of 2
        const V t844 = t836 + t840;
        const V t845 = t837 + t841;
        const V t846 = t836 - t840;
        const V t847 = t837 - t841;
        // complex block of 2
        const V t848 = t838 + t843;
        const V t849 = t839 + t842;
        const V t850 = t838 - t843;
        const V t851 = t839 - t842;
        // complex block of 2
        const V t852 = t545 - t521;
        const V t853 = t518 - t542;
        const V t854 = t545 + t521;
        const V t855 = t542 + t518;
        // complex block of 2
        const V t856 = t461 - t605;
        const V t857 = t602 - t458;
        const V t858 = t605 + t461;
        const V t859 = t602 + t458;
        // complex block of 2
        const V t860 = t852 + t856;
        const V t861 = t853 + t857;
        const V t862 = t852 - t856;
        const V t863 = t853 - t857;
        // complex block of 2
        const V t864 = t854 - t859;
        const V t865 = t855 + t858;
        const V t866 = t854 + t859;
        const V t867 = t858 - t855;
        // complex block of 2
        const V t868 = t593 - t473;
        const V t869 = t590 + t470;
        const V t870 = t593 + t473;
        const V t871 = t590 - t470;
        // complex block of 2
        const V t872 = t509 - t557;
        const V t873 = t554 + t506;
        const V t874 = t557 + t509;
        const V t875 = t506 - t554;
        // complex block of 2
        const V t876 = t868 + t872;
        const V t877 = t869 - t873;
        const V t878 = t868 - t872;
        const V t879 = t869 + t873;
        // complex block of 2
        const V t880 = t870 - t875;
        const V t881 = t871 - t874;
        const V t882 = t870 + t875;
        const V t883 = t871 + t874;
        // spectrum block of 7, multiplier 4
        const V t884 = t845 + t861;
        const V t885 = t884 + t877;
        const V t886 = t885 + t832;
        io.im(1, t886);
        const V t887 = c[1] * t845;
        const V t888 = c[2] * t861;
        const V t889 = t887 - t888;
        const V t890 = c[0] * t877;
        const V t891 = t889 - t890;
        const V t892 = t891 + t832;
        const V t893 = c[4] * t844;
        const V t894 = c[5] * t860;
        const V t895 = t893 + t894;
        const V t896 = c[3] * t876;
        const V t897 = t895 + t896;
        const V t898 = t892 - t897;
        io.im(23, t898);
        const V t899 = t892 + t897;
        io.im(24, t899);
        const V t900 = c[2] * t845;
        const V t901 = t832 - t900;
        const V t902 = c[0] * t861;
        const V t903 = t901 - t902;
        const V t904 = c[1] * t877;
        const V t905 = t903 + t904;
        const V t906 = c[5] * t844;
        const V t907 = c[3] * t860;
        const V t908 = t906 - t907;
        const V t909 = c[4] * t876;
        const V t910 = t908 - t909;
        const V t911 = t905 - t910;
        io.im(7, t911);
        const V t912 = t905 + t910;
        io.im(25, t912);
        const V t913 = c[0] * t845;
        const V t914 = t832 - t913;
        const V t915 = c[1] * t861;
        const V t916 = t914 + t915;
        const V t917 = c[2] * t877;
        const V t918 = t916 - t917;
        const V t919 = c[3] * t844;
        const V t920 = c[4] * t860;
        const V t921 = t919 - t920;
        const V t922 = c[5] * t876;
        const V t923 = t921 + t922;
        const V t924 = t918 - t923;
        io.im(16, t924);
        const V t925 = t918 + t923;
        io.im(20, t925);
        // spectrum block of 7, multiplier 4
        const V t926 = t849 - t865;
        const V t927 = t926 + t881;
        const V t928 = t927 + t834;
        io.im(17, t928);
        const V t929 = c[1] * t849;
        const V t930 = c[2] * t865;
        const V t931 = t929 + t930;
        const V t932 = c[0] * t881;
        const V t933 = t931 - t932;
        const V t934 = t933 + t834;
        const V t935 = c[4] * t848;
        const V t936 = c[5] * t864;
        const V t937 = t935 + t936;
        const V t938 = c[3] * t880;
        const V t939 = t937 + t938;
        const V t940 = t934 - t939;
        io.im(14, t940);
        const V t941 = t934 + t939;
        io.im(2, t941);
        const V t942 = c[2] * t849;
        const V t943 = t834 - t942;
        const V t944 = c[0] * t865;
        const V t945 = t943 + t944;
        const V t946 = c[1] * t881;
        const V t947 = t945 + t946;
        const V t948 = c[5] * t848;
        const V t949 = c[3] * t864;
        const V t950 = t948 - t949;
        const V t951 = c[4] * t880;
        const V t952 = t950 - t951;
        const V t953 = t947 - t952;
        io.im(3, t953);
        const V t954 = t947 + t952;
        io.im(19, t954);
        const V t955 = c[0] * t849;
        const V t956 = t834 - t955;
        const V t957 = c[1] * t865;
        const V t958 = t956 - t957;
        const V t959 = c[2] * t881;
        const V t960 = t958 - t959;
        const V t961 = c[3] * t848;
        const V t962 = c[4] * t864;
        const V t963 = t961 - t962;
        const V t964 = c[5] * t880;
        const V t965 = t963 + t964;
        const V t966 = t960 - t965;
        io.im(11, t966);
        const V t967 = t960 + t965;
        io.im(21, t967);
        // spectrum block of 7, multiplier 4
        const V t968 = t847 + t863;
        const V t969 = t968 + t879;
        const V t970 = t969 + t833;
        io.im(28, t970);
        const V t971 = c[1] * t847;
        const V t972 = c[2] * t863;
        const V t973 = t971 - t972;
        const V t974 = c[0] * t879;
        const V t975 = t973 - t974;
        const V t976 = t975 + t833;
        const V t977 = c[4] * t846;
        const V t978 = c[5] * t862;
        const V t979 = t977 + t978;
        const V t980 = c[3] * t878;
        const V t981 = t979 + t980;
        const V t982 = t976 - t981;
        io.im(6, t982);
        const V t983 = t976 + t981;
        io.im(5, t983);
        const V t984 = c[2] * t847;
        const V t985 = t833 - t984;
        const V t986 = c[0] * t863;
        const V t987 = t985 - t986;
        const V t988 = c[1] * t879;
        const V t989 = t987 + t988;
        const V t990 = c[5] * t846;
        const V t991 = c[3] * t862;
        const V t992 = t990 - t991;
        const V t993 = c[4] * t878;
        const V t994 = t992 - t993;
        const V t995 = t989 - t994;
        io.im(22, t995);
        const V t996 = t989 + t994;
        io.im(4, t996);
        const V t997 = c[0] * t847;
        const V t998 = t833 - t997;
        const V t999 = c[1] * t863;
        const V t1000 = t998 + t999;
        const V t1001 = c[2] * t879;
        const V t1002 = t1000 - t1001;
        const V t1003 = c[3] * t846;
        const V t1004 = c[4] * t862;
        const V t1005 = t1003 - t1004;
        const V t1006 = c[5] * t878;
        const V t1007 = t1005 + t1006;
        const V t1008 = t1002 - t1007;
        io.im(13, t1008);
        const V t1009 = t1002 + t1007;
        io.im(9, t1009);
        // spectrum block of 7, multiplier 4
        const V t1010 = t851 + t867;
        const V t1011 = t1010 + t883;
        const V t1012 = t1011 + t835;
        io.im(12, t1012);
        const V t1013 = c[1] * t851;
        const V t1014 = c[2] * t867;
        const V t1015 = t1013 - t1014;
        const V t1016 = c[0] * t883;
        const V t1017 = t1015 - t1016;
        const V t1018 = t1017 + t835;
        const V t1019 = c[4] * t850;
        const V t1020 = c[5] * t866;
        const V t1021 = t1019 + t1020;
        const V t1022 = c[3] * t882;
        const V t1023 = t1021 + t1022;
        const V t1024 = t1018 - t1023;
        io.im(15, t1024);
        const V t1025 = t1018 + t1023;
        io.im(27, t1025);
        const V t1026 = c[2] * t851;
        const V t1027 = t835 - t1026;
        const V t1028 = c[0] * t867;
        const V t1029 = t1027 - t1028;
        const V t1030 = c[1] * t883;
        const V t1031 = t1029 + t1030;
        const V t1032 = c[5] * t850;
        const V t1033 = c[3] * t866;
        const V t1034 = t1032 - t1033;
        const V t1035 = c[4] * t882;
        const V t1036 = t1034 - t1035;
        const V t1037 = t1031 - t1036;
        io.im(26, t1037);
        const V t1038 = t1031 + t1036;
        io.im(10, t1038);
        const V t1039 = c[0] * t851;
        const V t1040 = t835 - t1039;
        const V t1041 = c[1] * t867;
        const V t1042 = t1040 + t1041;
        const V t1043 = c[2] * t883;
        const V t1044 = t1042 - t1043;
        const V t1045 = c[3] * t850;
        const V t1046 = c[4] * t866;
        const V t1047 = t1045 - t1046;
        const V t1048 = c[5] * t882;
        const V t1049 = t1047 + t1048;
        const V t1050 = t1044 - t1049;
        io.im(18, t1050);
        const V t1051 = t1044 + t1049;
        io.im(8, t1051);
    }
};

}  // namespace zulg
