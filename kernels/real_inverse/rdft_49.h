// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 49.
// Inverse DFT to 49 real points, twiddled 7, 7.
// 204 additions, 204 subtractions, 372 multiplications (421 with `scale`); 31 constants; 66 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<49> {
    static constexpr int steps = 829;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.6956825506034864,  // c[6]: -sin 2 pi 43/49
        0.7183493500977276,  // c[7]: cos 2 pi 43/49
        0.2536545839095074,  // c[8]: -sin 2 pi 47/49
        0.9672948630390295,  // c[9]: cos 2 pi 47/49
        0.37526700487937414,  // c[10]: -sin 2 pi 46/49
        0.9269167573460217,  // c[11]: cos 2 pi 46/49
        0.9994862162006879,  // c[12]: -sin 2 pi 37/49
        0.03205157757165517,  // c[13]: cos 2 pi 37/49
        0.4907175520039379,  // c[14]: -sin 2 pi 45/49
        0.8713187041233893,  // c[15]: cos 2 pi 45/49
        0.12787716168450602,  // c[16]: -sin 2 pi 48/49
        0.9917900138232462,  // c[17]: cos 2 pi 48/49
        0.7402779970753155,  // c[18]: -sin 2 pi 31/49
        0.6723008902613168,  // c[19]: -cos 2 pi 31/49
        0.598110530491216,  // c[20]: -sin 2 pi 44/49
        0.8014136218679566,  // c[21]: cos 2 pi 44/49
        0.9586678530366606,  // c[22]: -sin 2 pi 39/49
        0.28452758663103245,  // c[23]: cos 2 pi 39/49
        0.9384684220497604,  // c[24]: -sin 2 pi 34/49
        0.3453650544213076,  // c[25]: -cos 2 pi 34/49
        0.9144126230158125,  // c[26]: -sin 2 pi 40/49
        0.40478334312239383,  // c[27]: cos 2 pi 40/49
        0.8551427630053462,  // c[28]: -sin 2 pi 41/49
        0.518392568310525,  // c[29]: cos 2 pi 41/49
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x7r = io.re(7);
        const V t0 = two * x7r;
        const V x14r = io.re(14);
        const V t1 = two * x14r;
        // spectrum block of 7
        const V t2 = t0 + t1;
        const V t3 = c[0] * t0;
        const V t4 = c[1] * t1;
        const V t5 = c[1] * t0;
        const V t6 = c[2] * t1;
        const V t7 = c[2] * t0;
        const V t8 = c[0] * t1;
        // doubled bins
        const V x21r = io.re(21);
        const V t9 = two * x21r;
        // spectrum block of 7
        const V t10 = c[2] * t9;
        const V t11 = t2 + t9;
        const V x0r = io.re(0);
        const V t12 = t11 + x0r;
        const V t13 = t3 - t4;
        const V t14 = t13 - t10;
        const V t15 = t14 + x0r;
        const V t16 = x0r - t5;
        const V t17 = t16 - t6;
        const V t18 = c[0] * t9;
        const V t19 = t17 + t18;
        const V t20 = x0r - t7;
        const V t21 = t20 + t8;
        const V t22 = c[1] * t9;
        const V t23 = t21 - t22;
        // doubled bins
        const V x1r = io.re(1);
        const V t24 = two * x1r;
        const V x1i = io.im(1);
        const V t25 = two * x1i;
        const V x6r = io.re(6);
        const V t26 = two * x6r;
        const V x8r = io.re(8);
        const V t27 = two * x8r;
        // complex block of 7
        const V t28 = t27 + t26;
        const V t29 = c[0] * t28;
        const V t30 = c[1] * t28;
        const V t31 = c[2] * t28;
        const V t32 = t27 - t26;
        const V t33 = c[3] * t32;
        const V t34 = c[4] * t32;
        const V t35 = c[5] * t32;
        // doubled bins
        const V x6i = io.im(6);
        const V t36 = two * x6i;
        const V x8i = io.im(8);
        const V t37 = two * x8i;
        // complex block of 7
        const V t38 = t37 - t36;
        const V t39 = c[0] * t38;
        const V t40 = c[1] * t38;
        const V t41 = c[2] * t38;
        const V t42 = t37 + t36;
        const V t43 = c[3] * t42;
        const V t44 = c[4] * t42;
        const V t45 = c[5] * t42;
        // doubled bins
        const V x13r = io.re(13);
        const V t46 = two * x13r;
        const V x15r = io.re(15);
        const V t47 = two * x15r;
        // complex block of 7
        const V t48 = t46 + t47;
        const V t49 = c[1] * t48;
        const V t50 = c[2] * t48;
        const V t51 = c[0] * t48;
        const V t52 = t46 - t47;
        const V t53 = c[4] * t52;
        const V t54 = c[5] * t52;
        const V t55 = c[3] * t52;
        // doubled bins
        const V x13i = io.im(13);
        const V t56 = two * x13i;
        const V x15i = io.im(15);
        const V t57 = two * x15i;
        // complex block of 7
        const V t58 = t57 - t56;
        const V t59 = c[1] * t58;
        const V t60 = c[2] * t58;
        const V t61 = c[0] * t58;
        const V t62 = t56 + t57;
        const V t63 = c[4] * t62;
        const V t64 = c[5] * t62;
        const V t65 = c[3] * t62;
        // doubled bins
        const V x20r = io.re(20);
        const V t66 = two * x20r;
        const V x22r = io.re(22);
        const V t67 = two * x22r;
        // complex block of 7
        const V t68 = t66 + t67;
        const V t69 = c[2] * t68;
        const V t70 = t66 - t67;
        // doubled bins
        const V x20i = io.im(20);
        const V t71 = two * x20i;
        const V x22i = io.im(22);
        const V t72 = two * x22i;
        // complex block of 7
        const V t73 = t72 - t71;
        const V t74 = c[2] * t73;
        const V t75 = t71 + t72;
        const V t76 = t38 + t58;
        const V t77 = t76 + t73;
        const V t78 = t28 + t48;
        const V t79 = t78 + t68;
        const V t80 = t79 + t24;
        const V t81 = t39 - t59;
        const V t82 = t81 - t74;
        const V t83 = t33 - t53;
        const V t84 = c[5] * t70;
        const V t85 = t83 - t84;
        const V t86 = t82 + t25;
        const V t87 = t86 + t85;
        const V t88 = t86 - t85;
        const V t89 = t29 - t49;
        const V t90 = t89 - t69;
        const V t91 = t43 + t63;
        const V t92 = c[5] * t75;
        const V t93 = t91 + t92;
        const V t94 = t90 + t24;
        const V t95 = t94 - t93;
        const V t96 = t94 + t93;
        const V t97 = t25 - t40;
        const V t98 = t97 - t60;
        const V t99 = c[0] * t73;
        const V t100 = t34 + t54;
        const V t101 = c[3] * t70;
        const V t102 = t100 + t101;
        const V t103 = t98 + t99;
        const V t104 = t103 + t102;
        const V t105 = t103 - t102;
        const V t106 = t24 - t30;
        const V t107 = t106 - t50;
        const V t108 = c[0] * t68;
        const V t109 = t44 - t64;
        const V t110 = c[3] * t75;
        const V t111 = t109 - t110;
        const V t112 = t107 + t108;
        const V t113 = t112 - t111;
        const V t114 = t112 + t111;
        const V t115 = t25 - t41;
        const V t116 = t115 + t61;
        const V t117 = c[1] * t73;
        const V t118 = t35 + t55;
        const V t119 = c[4] * t70;
        const V t120 = t118 - t119;
        const V t121 = t116 - t117;
        const V t122 = t121 + t120;
        const V t123 = t121 - t120;
        const V t124 = t24 - t31;
        const V t125 = t124 + t51;
        const V t126 = c[1] * t68;
        const V t127 = t45 - t65;
        const V t128 = c[4] * t75;
        const V t129 = t127 + t128;
        const V t130 = t125 - t126;
        const V t131 = t130 - t129;
        const V t132 = t130 + t129;
        // doubled bins
        const V x2r = io.re(2);
        const V t133 = two * x2r;
        const V x2i = io.im(2);
        const V t134 = two * x2i;
        const V x5r = io.re(5);
        const V t135 = two * x5r;
        const V x9r = io.re(9);
        const V t136 = two * x9r;
        // complex block of 7
        const V t137 = t136 + t135;
        const V t138 = c[0] * t137;
        const V t139 = c[1] * t137;
        const V t140 = c[2] * t137;
        const V t141 = t136 - t135;
        const V t142 = c[3] * t141;
        const V t143 = c[4] * t141;
        const V t144 = c[5] * t141;
        // doubled bins
        const V x5i = io.im(5);
        const V t145 = two * x5i;
        const V x9i = io.im(9);
        const V t146 = two * x9i;
        // complex block of 7
        const V t147 = t146 - t145;
        const V t148 = c[0] * t147;
        const V t149 = c[1] * t147;
        const V t150 = c[2] * t147;
        const V t151 = t146 + t145;
        const V t152 = c[3] * t151;
        const V t153 = c[4] * t151;
        const V t154 = c[5] * t151;
        // doubled bins
        const V x12r = io.re(12);
        const V t155 = two * x12r;
        const V x16r = io.re(16);
        const V t156 = two * x16r;
        // complex block of 7
        const V t157 = t155 + t156;
        const V t158 = c[1] * t157;
        const V t159 = c[2] * t157;
        const V t160 = c[0] * t157;
        const V t161 = t155 - t156;
        const V t162 = c[4] * t161;
        const V t163 = c[5] * t161;
        const V t164 = c[3] * t161;
        // doubled bins
        const V x12i = io.im(12);
        const V t165 = two * x12i;
        const V x16i = io.im(16);
        const V t166 = two * x16i;
        // complex block of 7
        const V t167 = t166 - t165;
        const V t168 = c[1] * t167;
        const V t169 = c[2] * t167;
        const V t170 = c[0] * t167;
        const V t171 = t165 + t166;
        const V t172 = c[4] * t171;
        const V t173 = c[5] * t171;
        const V t174 = c[3] * t171;
        // doubled bins
        const V x19r = io.re(19);
        const V t175 = two * x19r;
        const V x23r = io.re(23);
        const V t176 = two * x23r;
        // complex block of 7
        const V t177 = t175 + t176;
        const V t178 = c[2] * t177;
        const V t179 = t175 - t176;
        // doubled bins
        const V x19i = io.im(19);
        const V t180 = two * x19i;
        const V x23i = io.im(23);
        const V t181 = two * x23i;
        // complex block of 7
        const V t182 = t181 - t180;
        const V t183 = c[2] * t182;
        const V t184 = t180 + t181;
        const V t185 = t147 + t167;
        const V t186 = t185 + t182;
        const V t187 = t137 + t157;
        const V t188 = t187 + t177;
        const V t189 = t188 + t133;
        const V t190 = t148 - t168;
        const V t191 = t190 - t183;
        const V t192 = t142 - t162;
        const V t193 = c[5] * t179;
        const V t194 = t192 - t193;
        const V t195 = t191 + t134;
        const V t196 = t195 + t194;
        const V t197 = t195 - t194;
        const V t198 = t138 - t158;
        const V t199 = t198 - t178;
        const V t200 = t152 + t172;
        const V t201 = c[5] * t184;
        const V t202 = t200 + t201;
        const V t203 = t199 + t133;
        const V t204 = t203 - t202;
        const V t205 = t203 + t202;
        const V t206 = t134 - t149;
        const V t207 = t206 - t169;
        const V t208 = c[0] * t182;
        const V t209 = t143 + t163;
        const V t210 = c[3] * t179;
        const V t211 = t209 + t210;
        const V t212 = t207 + t208;
        const V t213 = t212 + t211;
        const V t214 = t212 - t211;
        const V t215 = t133 - t139;
        const V t216 = t215 - t159;
        const V t217 = c[0] * t177;
        const V t218 = t153 - t173;
        const V t219 = c[3] * t184;
        const V t220 = t218 - t219;
        const V t221 = t216 + t217;
        const V t222 = t221 - t220;
        const V t223 = t221 + t220;
        const V t224 = t134 - t150;
        const V t225 = t224 + t170;
        const V t226 = c[1] * t182;
        const V t227 = t144 + t164;
        const V t228 = c[4] * t179;
        const V t229 = t227 - t228;
        const V t230 = t225 - t226;
        const V t231 = t230 + t229;
        const V t232 = t230 - t229;
        const V t233 = t133 - t140;
        const V t234 = t233 + t160;
        const V t235 = c[1] * t177;
        const V t236 = t154 - t174;
        const V t237 = c[4] * t184;
        const V t238 = t236 + t237;
        const V t239 = t234 - t235;
        const V t240 = t239 - t238;
        const V t241 = t239 + t238;
        // doubled bins
        const V x3r = io.re(3);
        const V t242 = two * x3r;
        const V x4r = io.re(4);
        const V t243 = two * x4r;
        const V x10r = io.re(10);
        const V t244 = two * x10r;
        // complex block of 7
        const V t245 = t244 + t243;
        const V t246 = c[0] * t245;
        const V t247 = c[1] * t245;
        const V t248 = c[2] * t245;
        const V t249 = t244 - t243;
        // doubled bins
        const V x11r = io.re(11);
        const V t250 = two * x11r;
        const V x17r = io.re(17);
        const V t251 = two * x17r;
        // complex block of 7
        const V t252 = t250 + t251;
        const V t253 = c[1] * t252;
        const V t254 = t250 - t251;
        // doubled bins
        const V x18r = io.re(18);
        const V t255 = two * x18r;
        const V x24r = io.re(24);
        const V t256 = two * x24r;
        // complex block of 7
        const V t257 = t255 + t256;
        const V t258 = t255 - t256;
        const V t259 = t245 + t252;
        const V t260 = t259 + t257;
        const V t261 = t246 - t253;
        const V t262 = c[2] * t257;
        const V t263 = t261 - t262;
        const V t264 = t263 + t242;
        const V t265 = c[3] * t249;
        const V t266 = c[4] * t254;
        const V t267 = t265 - t266;
        const V t268 = c[5] * t258;
        const V t269 = t267 - t268;
        const V t270 = t242 - t247;
        const V t271 = c[2] * t252;
        const V t272 = t270 - t271;
        const V t273 = c[0] * t257;
        const V t274 = t272 + t273;
        const V t275 = c[4] * t249;
        const V t276 = c[5] * t254;
        const V t277 = t275 + t276;
        const V t278 = c[3] * t258;
        const V t279 = t277 + t278;
        const V t280 = t242 - t248;
        const V t281 = c[0] * t252;
        const V t282 = t280 + t281;
        const V t283 = c[1] * t257;
        const V t284 = t282 - t283;
        const V t285 = c[5] * t249;
        const V t286 = c[3] * t254;
        const V t287 = t285 + t286;
        const V t288 = c[4] * t258;
        const V t289 = t287 - t288;
        // doubled bins
        const V x3i = io.im(3);
        const V t290 = two * x3i;
        const V x4i = io.im(4);
        const V t291 = two * x4i;
        const V x10i = io.im(10);
        const V t292 = two * x10i;
        // complex block of 7
        const V t293 = t292 - t291;
        const V t294 = c[0] * t293;
        const V t295 = c[1] * t293;
        const V t296 = c[2] * t293;
        const V t297 = t292 + t291;
        // doubled bins
        const V x11i = io.im(11);
        const V t298 = two * x11i;
        const V x17i = io.im(17);
        const V t299 = two * x17i;
        // complex block of 7
        const V t300 = t299 - t298;
        const V t301 = c[1] * t300;
        const V t302 = t298 + t299;
        // doubled bins
        const V x18i = io.im(18);
        const V t303 = two * x18i;
        const V x24i = io.im(24);
        const V t304 = two * x24i;
        // complex block of 7
        const V t305 = t304 - t303;
        const V t306 = t303 + t304;
        const V t307 = t293 + t300;
        const V t308 = t307 + t305;
        const V t309 = t294 - t301;
        const V t310 = c[2] * t305;
        const V t311 = t309 - t310;
        const V t312 = t311 + t290;
        const V t313 = c[3] * t297;
        const V t314 = c[4] * t302;
        const V t315 = t313 + t314;
        const V t316 = c[5] * t306;
        const V t317 = t315 + t316;
        const V t318 = t290 - t295;
        const V t319 = c[2] * t300;
        const V t320 = t318 - t319;
        const V t321 = c[0] * t305;
        const V t322 = t320 + t321;
        const V t323 = c[4] * t297;
        const V t324 = c[5] * t302;
        const V t325 = t323 - t324;
        const V t326 = c[3] * t306;
        const V t327 = t325 - t326;
        const V t328 = t290 - t296;
        const V t329 = c[0] * t300;
        const V t330 = t328 + t329;
        const V t331 = c[1] * t305;
        const V t332 = t330 - t331;
        const V t333 = c[5] * t297;
        const V t334 = c[3] * t302;
        const V t335 = t333 - t334;
        const V t336 = c[4] * t306;
        const V t337 = t335 + t336;
        // doubled bins
        const V x7i = io.im(7);
        const V t338 = two * x7i;
        // spectrum block of 7
        const V t339 = c[3] * t338;
        const V t340 = c[4] * t338;
        const V t341 = c[5] * t338;
        // doubled bins
        const V x14i = io.im(14);
        const V t342 = two * x14i;
        // spectrum block of 7
        const V t343 = c[4] * t342;
        const V t344 = c[5] * t342;
        const V t345 = c[3] * t342;
        // doubled bins
        const V x21i = io.im(21);
        const V t346 = two * x21i;
        // spectrum block of 7
        const V t347 = t339 + t343;
        const V t348 = c[5] * t346;
        const V t349 = t347 + t348;
        const V t350 = t340 - t344;
        const V t351 = c[3] * t346;
        const V t352 = t350 - t351;
        const V t353 = t341 - t345;
        const V t354 = c[4] * t346;
        const V t355 = t353 + t354;
        const V t356 = t15 - t349;
        // spectrum block of 49
        const V t357 = c[16] * t87;
        const V t358 = c[17] * t95;
        const V t359 = t358 - t357;
        const V t360 = c[8] * t196;
        const V t361 = c[9] * t204;
        const V t362 = t361 - t360;
        // spectrum block of 7
        const V t363 = t359 + t362;
        const V t364 = c[0] * t359;
        const V t365 = c[1] * t362;
        const V t366 = t364 - t365;
        const V t367 = c[1] * t359;
        const V t368 = t356 - t367;
        const V t369 = c[2] * t362;
        const V t370 = c[2] * t359;
        const V t371 = t356 - t370;
        const V t372 = c[0] * t362;
        // spectrum block of 49
        const V t373 = c[16] * t95;
        const V t374 = c[17] * t87;
        const V t375 = t374 + t373;
        // spectrum block of 7
        const V t376 = c[3] * t375;
        const V t377 = c[4] * t375;
        const V t378 = c[5] * t375;
        // spectrum block of 49
        const V t379 = c[8] * t204;
        const V t380 = c[9] * t196;
        const V t381 = t380 + t379;
        // spectrum block of 7
        const V t382 = c[4] * t381;
        const V t383 = c[5] * t381;
        const V t384 = c[3] * t381;
        // complex block of 7
        const V t385 = t312 + t269;
        // spectrum block of 49
        const V t386 = c[10] * t385;
        const V t387 = c[11] * t385;
        // complex block of 7
        const V t388 = t264 - t317;
        // spectrum block of 49
        const V t389 = c[11] * t388;
        const V t390 = c[10] * t388;
        const V t391 = t389 - t386;
        // spectrum block of 7
        const V t392 = c[2] * t391;
        // spectrum block of 49
        const V t393 = t387 + t390;
        // spectrum block of 7
        const V t394 = t363 + t391;
        const V t395 = t394 + t356;
        io.out(1, t395);
        const V t396 = t366 - t392;
        const V t397 = t396 + t356;
        const V t398 = t376 + t382;
        const V t399 = c[5] * t393;
        const V t400 = t398 + t399;
        const V t401 = t397 - t400;
        io.out(8, t401);
        const V t402 = t397 + t400;
        io.out(43, t402);
        const V t403 = t368 - t369;
        const V t404 = c[0] * t391;
        const V t405 = t403 + t404;
        const V t406 = t377 - t383;
        const V t407 = c[3] * t393;
        const V t408 = t406 - t407;
        const V t409 = t405 - t408;
        io.out(15, t409);
        const V t410 = t405 + t408;
        io.out(36, t410);
        const V t411 = t371 + t372;
        const V t412 = c[1] * t391;
        const V t413 = t411 - t412;
        const V t414 = t378 - t384;
        const V t415 = c[4] * t393;
        const V t416 = t414 + t415;
        const V t417 = t413 - t416;
        io.out(22, t417);
        const V t418 = t413 + t416;
        io.out(29, t418);
        // spectrum block of 7
        const V t419 = t15 + t349;
        // spectrum block of 49
        const V t420 = c[6] * t88;
        const V t421 = c[7] * t96;
        const V t422 = t421 - t420;
        const V t423 = c[12] * t197;
        const V t424 = c[13] * t205;
        const V t425 = t424 - t423;
        // spectrum block of 7
        const V t426 = t422 + t425;
        const V t427 = c[0] * t422;
        const V t428 = c[1] * t425;
        const V t429 = t427 - t428;
        const V t430 = c[1] * t422;
        const V t431 = t419 - t430;
        const V t432 = c[2] * t425;
        const V t433 = c[2] * t422;
        const V t434 = t419 - t433;
        const V t435 = c[0] * t425;
        // spectrum block of 49
        const V t436 = c[6] * t96;
        const V t437 = c[7] * t88;
        const V t438 = t437 + t436;
        // spectrum block of 7
        const V t439 = c[3] * t438;
        const V t440 = c[4] * t438;
        const V t441 = c[5] * t438;
        // spectrum block of 49
        const V t442 = c[12] * t205;
        const V t443 = c[13] * t197;
        const V t444 = t443 + t442;
        // spectrum block of 7
        const V t445 = c[4] * t444;
        const V t446 = c[5] * t444;
        const V t447 = c[3] * t444;
        // complex block of 7
        const V t448 = t312 - t269;
        // spectrum block of 49
        const V t449 = c[18] * t448;
        const V t450 = c[19] * t448;
        // complex block of 7
        const V t451 = t264 + t317;
        // spectrum block of 49
        const V t452 = c[19] * t451;
        const V t453 = c[18] * t451;
        const V t454 = t452 + t449;
        // spectrum block of 7
        const V t455 = c[2] * t454;
        // spectrum block of 49
        const V t456 = t453 - t450;
        // spectrum block of 7
        const V t457 = t426 - t454;
        const V t458 = t457 + t419;
        io.out(6, t458);
        const V t459 = t429 + t455;
        const V t460 = t459 + t419;
        const V t461 = t439 + t445;
        const V t462 = c[5] * t456;
        const V t463 = t461 + t462;
        const V t464 = t460 - t463;
        io.out(13, t464);
        const V t465 = t460 + t463;
        io.out(48, t465);
        const V t466 = t431 - t432;
        const V t467 = c[0] * t454;
        const V t468 = t466 - t467;
        const V t469 = t440 - t446;
        const V t470 = c[3] * t456;
        const V t471 = t469 - t470;
        const V t472 = t468 - t471;
        io.out(20, t472);
        const V t473 = t468 + t471;
        io.out(41, t473);
        const V t474 = t434 + t435;
        const V t475 = c[1] * t454;
        const V t476 = t474 + t475;
        const V t477 = t441 - t447;
        const V t478 = c[4] * t456;
        const V t479 = t477 + t478;
        const V t480 = t476 - t479;
        io.out(27, t480);
        const V t481 = t476 + t479;
        io.out(34, t481);
        // spectrum block of 7
        const V t482 = t19 - t352;
        // spectrum block of 49
        const V t483 = c[8] * t104;
        const V t484 = c[9] * t113;
        const V t485 = t484 - t483;
        const V t486 = c[14] * t213;
        const V t487 = c[15] * t222;
        const V t488 = t487 - t486;
        // spectrum block of 7
        const V t489 = t485 + t488;
        const V t490 = c[0] * t485;
        const V t491 = c[1] * t488;
        const V t492 = t490 - t491;
        const V t493 = c[1] * t485;
        const V t494 = t482 - t493;
        const V t495 = c[2] * t488;
        const V t496 = c[2] * t485;
        const V t497 = t482 - t496;
        const V t498 = c[0] * t488;
        // spectrum block of 49
        const V t499 = c[8] * t113;
        const V t500 = c[9] * t104;
        const V t501 = t500 + t499;
        // spectrum block of 7
        const V t502 = c[3] * t501;
        const V t503 = c[4] * t501;
        const V t504 = c[5] * t501;
        // spectrum block of 49
        const V t505 = c[14] * t222;
        const V t506 = c[15] * t213;
        const V t507 = t506 + t505;
        // spectrum block of 7
        const V t508 = c[4] * t507;
        const V t509 = c[5] * t507;
        const V t510 = c[3] * t507;
        // complex block of 7
        const V t511 = t322 + t279;
        // spectrum block of 49
        const V t512 = c[6] * t511;
        const V t513 = c[7] * t511;
        // complex block of 7
        const V t514 = t274 - t327;
        // spectrum block of 49
        const V t515 = c[7] * t514;
        const V t516 = c[6] * t514;
        const V t517 = t515 - t512;
        // spectrum block of 7
        const V t518 = c[2] * t517;
        // spectrum block of 49
        const V t519 = t513 + t516;
        // spectrum block of 7
        const V t520 = t489 + t517;
        const V t521 = t520 + t482;
        io.out(2, t521);
        const V t522 = t492 - t518;
        const V t523 = t522 + t482;
        const V t524 = t502 + t508;
        const V t525 = c[5] * t519;
        const V t526 = t524 + t525;
        const V t527 = t523 - t526;
        io.out(9, t527);
        const V t528 = t523 + t526;
        io.out(44, t528);
        const V t529 = t494 - t495;
        const V t530 = c[0] * t517;
        const V t531 = t529 + t530;
        const V t532 = t503 - t509;
        const V t533 = c[3] * t519;
        const V t534 = t532 - t533;
        const V t535 = t531 - t534;
        io.out(16, t535);
        const V t536 = t531 + t534;
        io.out(37, t536);
        const V t537 = t497 + t498;
        const V t538 = c[1] * t517;
        const V t539 = t537 - t538;
        const V t540 = t504 - t510;
        const V t541 = c[4] * t519;
        const V t542 = t540 + t541;
        const V t543 = t539 - t542;
        io.out(23, t543);
        const V t544 = t539 + t542;
        io.out(30, t544);
        // spectrum block of 7
        const V t545 = t19 + t352;
        // spectrum block of 49
        const V t546 = c[20] * t105;
        const V t547 = c[21] * t114;
        const V t548 = t547 - t546;
        const V t549 = c[22] * t214;
        const V t550 = c[23] * t223;
        const V t551 = t550 - t549;
        // spectrum block of 7
        const V t552 = t548 + t551;
        const V t553 = c[0] * t548;
        const V t554 = c[1] * t551;
        const V t555 = t553 - t554;
        const V t556 = c[1] * t548;
        const V t557 = t545 - t556;
        const V t558 = c[2] * t551;
        const V t559 = c[2] * t548;
        const V t560 = t545 - t559;
        const V t561 = c[0] * t551;
        // spectrum block of 49
        const V t562 = c[20] * t114;
        const V t563 = c[21] * t105;
        const V t564 = t563 + t562;
        // spectrum block of 7
        const V t565 = c[3] * t564;
        const V t566 = c[4] * t564;
        const V t567 = c[5] * t564;
        // spectrum block of 49
        const V t568 = c[22] * t223;
        const V t569 = c[23] * t214;
        const V t570 = t569 + t568;
        // spectrum block of 7
        const V t571 = c[4] * t570;
        const V t572 = c[5] * t570;
        const V t573 = c[3] * t570;
        // complex block of 7
        const V t574 = t322 - t279;
        // spectrum block of 49
        const V t575 = c[24] * t574;
        const V t576 = c[25] * t574;
        // complex block of 7
        const V t577 = t274 + t327;
        // spectrum block of 49
        const V t578 = c[25] * t577;
        const V t579 = c[24] * t577;
        const V t580 = t578 + t575;
        // spectrum block of 7
        const V t581 = c[2] * t580;
        // spectrum block of 49
        const V t582 = t579 - t576;
        // spectrum block of 7
        const V t583 = t552 - t580;
        const V t584 = t583 + t545;
        io.out(5, t584);
        const V t585 = t555 + t581;
        const V t586 = t585 + t545;
        const V t587 = t565 + t571;
        const V t588 = c[5] * t582;
        const V t589 = t587 + t588;
        const V t590 = t586 - t589;
        io.out(12, t590);
        const V t591 = t586 + t589;
        io.out(47, t591);
        const V t592 = t557 - t558;
        const V t593 = c[0] * t580;
        const V t594 = t592 - t593;
        const V t595 = t566 - t572;
        const V t596 = c[3] * t582;
        const V t597 = t595 - t596;
        const V t598 = t594 - t597;
        io.out(19, t598);
        const V t599 = t594 + t597;
        io.out(40, t599);
        const V t600 = t560 + t561;
        const V t601 = c[1] * t580;
        const V t602 = t600 + t601;
        const V t603 = t567 - t573;
        const V t604 = c[4] * t582;
        const V t605 = t603 + t604;
        const V t606 = t602 - t605;
        io.out(26, t606);
        const V t607 = t602 + t605;
        io.out(33, t607);
        // spectrum block of 7
        const V t608 = t23 - t355;
        // spectrum block of 49
        const V t609 = c[10] * t122;
        const V t610 = c[11] * t131;
        const V t611 = t610 - t609;
        const V t612 = c[6] * t231;
        const V t613 = c[7] * t240;
        const V t614 = t613 - t612;
        // spectrum block of 7
        const V t615 = t611 + t614;
        const V t616 = c[0] * t611;
        const V t617 = c[1] * t614;
        const V t618 = t616 - t617;
        const V t619 = c[1] * t611;
        const V t620 = t608 - t619;
        const V t621 = c[2] * t614;
        const V t622 = c[2] * t611;
        const V t623 = t608 - t622;
        const V t624 = c[0] * t614;
        // spectrum block of 49
        const V t625 = c[10] * t131;
        const V t626 = c[11] * t122;
        const V t627 = t626 + t625;
        // spectrum block of 7
        const V t628 = c[3] * t627;
        const V t629 = c[4] * t627;
        const V t630 = c[5] * t627;
        // spectrum block of 49
        const V t631 = c[6] * t240;
        const V t632 = c[7] * t231;
        const V t633 = t632 + t631;
        // spectrum block of 7
        const V t634 = c[4] * t633;
        const V t635 = c[5] * t633;
        const V t636 = c[3] * t633;
        // complex block of 7
        const V t637 = t332 + t289;
        // spectrum block of 49
        const V t638 = c[26] * t637;
        const V t639 = c[27] * t637;
        // complex block of 7
        const V t640 = t284 - t337;
        // spectrum block of 49
        const V t641 = c[27] * t640;
        const V t642 = c[26] * t640;
        const V t643 = t641 - t638;
        // spectrum block of 7
        const V t644 = c[2] * t643;
        // spectrum block of 49
        const V t645 = t639 + t642;
        // spectrum block of 7
        const V t646 = t615 + t643;
        const V t647 = t646 + t608;
        io.out(3, t647);
        const V t648 = t618 - t644;
        const V t649 = t648 + t608;
        const V t650 = t628 + t634;
        const V t651 = c[5] * t645;
        const V t652 = t650 + t651;
        const V t653 = t649 - t652;
        io.out(10, t653);
        const V t654 = t649 + t652;
        io.out(45, t654);
        const V t655 = t620 - t621;
        const V t656 = c[0] * t643;
        const V t657 = t655 + t656;
        const V t658 = t629 - t635;
        const V t659 = c[3] * t645;
        const V t660 = t658 - t659;
        const V t661 = t657 - t660;
        io.out(17, t661);
        const V t662 = t657 + t660;
        io.out(38, t662);
        const V t663 = t623 + t624;
        const V t664 = c[1] * t643;
        const V t665 = t663 - t664;
        const V t666 = t630 - t636;
        const V t667 = c[4] * t645;
        const V t668 = t666 + t667;
        const V t669 = t665 - t668;
        io.out(24, t669);
        const V t670 = t665 + t668;
        io.out(31, t670);
        // spectrum block of 7
        const V t671 = t23 + t355;
        // spectrum block of 49
        const V t672 = c[14] * t123;
        const V t673 = c[15] * t132;
        const V t674 = t673 - t672;
        const V t675 = c[28] * t232;
        const V t676 = c[29] * t241;
        const V t677 = t676 - t675;
        // spectrum block of 7
        const V t678 = t674 + t677;
        const V t679 = c[0] * t674;
        const V t680 = c[1] * t677;
        const V t681 = t679 - t680;
        const V t682 = c[1] * t674;
        const V t683 = t671 - t682;
        const V t684 = c[2] * t677;
        const V t685 = c[2] * t674;
        const V t686 = t671 - t685;
        const V t687 = c[0] * t677;
        // spectrum block of 49
        const V t688 = c[14] * t132;
        const V t689 = c[15] * t123;
        const V t690 = t689 + t688;
        // spectrum block of 7
        const V t691 = c[3] * t690;
        const V t692 = c[4] * t690;
        const V t693 = c[5] * t690;
        // spectrum block of 49
        const V t694 = c[28] * t241;
        const V t695 = c[29] * t232;
        const V t696 = t695 + t694;
        // spectrum block of 7
        const V t697 = c[4] * t696;
        const V t698 = c[5] * t696;
        const V t699 = c[3] * t696;
        // complex block of 7
        const V t700 = t332 - t289;
        // spectrum block of 49
        const V t701 = c[12] * t700;
        const V t702 = c[13] * t700;
        // complex block of 7
        const V t703 = t284 + t337;
        // spectrum block of 49
        const V t704 = c[13] * t703;
        const V t705 = c[12] * t703;
        const V t706 = t704 - t701;
        // spectrum block of 7
        const V t707 = c[2] * t706;
        // spectrum block of 49
        const V t708 = t702 + t705;
        // spectrum block of 7
        const V t709 = t678 + t706;
        const V t710 = t709 + t671;
        io.out(4, t710);
        const V t711 = t681 - t707;
        const V t712 = t711 + t671;
        const V t713 = t691 + t697;
        const V t714 = c[5] * t708;
        const V t715 = t713 + t714;
        const V t716 = t712 - t715;
        io.out(11, t716);
        const V t717 = t712 + t715;
        io.out(46, t717);
        const V t718 = t683 - t684;
        const V t719 = c[0] * t706;
        const V t720 = t718 + t719;
        const V t721 = t692 - t698;
        const V t722 = c[3] * t708;
        const V t723 = t721 - t722;
        const V t724 = t720 - t723;
        io.out(18, t724);
        const V t725 = t720 + t723;
        io.out(39, t725);
        const V t726 = t686 + t687;
        const V t727 = c[1] * t706;
        const V t728 = t726 - t727;
        const V t729 = t693 - t699;
        const V t730 = c[4] * t708;
        const V t731 = t729 + t730;
        const V t732 = t728 - t731;
        io.out(25, t732);
        const V t733 = t728 + t731;
        io.out(32, t733);
        // complex block of 7
        const V t734 = t77 + t25;
        // spectrum block of 7
        const V t735 = c[3] * t734;
        const V t736 = c[4] * t734;
        const V t737 = c[5] * t734;
        // complex block of 7
        const V t738 = t186 + t134;
        // spectrum block of 7
        const V t739 = c[4] * t738;
        const V t740 = c[5] * t738;
        const V t741 = c[3] * t738;
        const V t742 = t735 + t739;
        const V t743 = t736 - t740;
        const V t744 = t737 - t741;
        // complex block of 7
        const V t745 = t308 + t290;
        // spectrum block of 7
        const V t746 = c[5] * t745;
        const V t747 = c[3] * t745;
        const V t748 = c[4] * t745;
        // complex block of 7
        const V t749 = t260 + t242;
        // spectrum block of 7
        const V t750 = c[2] * t749;
        const V t751 = t80 + t189;
        const V t752 = c[0] * t80;
        const V t753 = c[1] * t189;
        const V t754 = t752 - t753;
        const V t755 = t751 + t749;
        const V t756 = t754 - t750;
        const V t757 = c[0] * t749;
        const V t758 = c[1] * t749;
        const V t759 = c[1] * t80;
        const V t760 = t12 - t759;
        const V t761 = c[2] * t189;
        const V t762 = t760 - t761;
        const V t763 = c[2] * t80;
        const V t764 = t12 - t763;
        const V t765 = c[0] * t189;
        const V t766 = t764 + t765;
        const V t767 = t755 + t12;
        io.out(0, t767);
        const V t768 = t756 + t12;
        const V t769 = t742 + t746;
        const V t770 = t768 - t769;
        io.out(7, t770);
        const V t771 = t768 + t769;
        io.out(42, t771);
        const V t772 = t762 + t757;
        const V t773 = t743 - t747;
        const V t774 = t772 - t773;
        io.out(14, t774);
        const V t775 = t772 + t773;
        io.out(35, t775);
        const V t776 = t766 - t758;
        const V t777 = t744 + t748;
        const V t778 = t776 - t777;
        io.out(21, t778);
        const V t779 = t776 + t777;
        io.out(28, t779);
    }
};

}  // namespace zulg
