// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 38.
// Complex DFT of 38 points, prime-factor, order 19, 2.
// 402 additions, 402 subtractions, 440 multiplications (516 with `scale`); 28 constants; 79 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<38> {
    static constexpr int steps = 1320;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.25181241707905544,  // c[6]: -P[1] of 19
        0.4137129534343489,  // c[7]: Q[1] of 19
        0.06545376435166843,  // c[8]: Q[2] of 19
        0.4798788450919296,  // c[9]: P[2] of 19
        0.28199561460730244,  // c[10]: P[3] of 19
        0.3937592850674352,  // c[11]: Q[3] of 19
        0.3056588037374879,  // c[12]: -Q[4] of 19
        0.37568683358927524,  // c[13]: P[4] of 19
        0.4195932163702218,  // c[14]: P[5] of 19
        0.24188723407956064,  // c[15]: -Q[5] of 19
        0.10231284930367265,  // c[16]: -Q[6] of 19
        0.47339199623771827,  // c[17]: P[6] of 19
        0.3873109834397322,  // c[18]: -P[7] of 19
        0.2907887606863707,  // c[19]: Q[7] of 19
        0.007654694426448971,  // c[20]: -Q[8] of 19
        0.4842616099669739,  // c[21]: -P[8] of 19
        0.1503837331804353,  // c[22]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[23]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[24]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[25]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: -beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x2r = io.re(2);
        const V x36r = io.re(36);
        const V t0 = x2r + x36r;
        const V t1 = x2r - x36r;
        // real block of 2
        const V x8r = io.re(8);
        const V x30r = io.re(30);
        const V t2 = x8r + x30r;
        const V t3 = x8r - x30r;
        // real block of 2
        const V x32r = io.re(32);
        const V x6r = io.re(6);
        const V t4 = x32r + x6r;
        const V t5 = x32r - x6r;
        // real block of 2
        const V x14r = io.re(14);
        const V x24r = io.re(24);
        const V t6 = x14r + x24r;
        const V t7 = x14r - x24r;
        // real block of 2
        const V x18r = io.re(18);
        const V x20r = io.re(20);
        const V t8 = x18r + x20r;
        const V t9 = x18r - x20r;
        // real block of 2
        const V x34r = io.re(34);
        const V x4r = io.re(4);
        const V t10 = x34r + x4r;
        const V t11 = x34r - x4r;
        // real block of 2
        const V x22r = io.re(22);
        const V x16r = io.re(16);
        const V t12 = x22r + x16r;
        const V t13 = x22r - x16r;
        // real block of 2
        const V x12r = io.re(12);
        const V x26r = io.re(26);
        const V t14 = x12r + x26r;
        const V t15 = x12r - x26r;
        // real block of 2
        const V x10r = io.re(10);
        const V x28r = io.re(28);
        const V t16 = x10r + x28r;
        const V t17 = x10r - x28r;
        // real block of 3, multiplier 2
        const V t18 = t6 + t12;
        const V t19 = t6 - t12;
        const V t20 = t18 + t0;
        const V t21 = c[0] * t18;
        const V t22 = t0 - t21;
        const V t23 = c[1] * t19;
        // real block of 3, multiplier 2
        const V t24 = t8 + t14;
        const V t25 = t8 - t14;
        const V t26 = t24 + t2;
        const V t27 = c[0] * t24;
        const V t28 = t2 - t27;
        const V t29 = c[1] * t25;
        // real block of 3, multiplier 2
        const V t30 = t10 + t16;
        const V t31 = t10 - t16;
        const V t32 = t30 + t4;
        const V t33 = c[0] * t30;
        const V t34 = t4 - t33;
        const V t35 = c[1] * t31;
        // real block of 3, multiplier 2
        const V t36 = t26 + t32;
        const V t37 = t26 - t32;
        const V t38 = t36 + t20;
        const V t39 = c[0] * t36;
        const V t40 = t20 - t39;
        const V t41 = c[1] * t37;
        // real block of 9, multiplier 2
        const V t42 = c[2] * t29;
        const V t43 = c[3] * t28;
        const V t44 = t43 + t42;
        const V t45 = c[2] * t28;
        const V t46 = c[3] * t29;
        const V t47 = t46 - t45;
        const V t48 = c[4] * t35;
        const V t49 = c[5] * t34;
        const V t50 = t48 - t49;
        const V t51 = c[4] * t34;
        const V t52 = c[5] * t35;
        const V t53 = t52 + t51;
        // complex block of 3, multiplier 2
        const V t54 = t44 + t50;
        const V t55 = t47 - t53;
        const V t56 = t44 - t50;
        const V t57 = t47 + t53;
        const V t58 = t54 + t22;
        const V t59 = t55 + t23;
        const V t60 = c[0] * t54;
        const V t61 = t22 - t60;
        const V t62 = c[0] * t55;
        const V t63 = t23 - t62;
        const V t64 = c[1] * t56;
        const V t65 = c[1] * t57;
        const V t66 = t61 + t65;
        const V t67 = t63 - t64;
        const V t68 = t61 - t65;
        const V t69 = t63 + t64;
        // real block of 3, multiplier 2
        const V t70 = t7 + t13;
        const V t71 = t7 - t13;
        const V t72 = t70 + t1;
        const V t73 = c[0] * t70;
        const V t74 = t1 - t73;
        const V t75 = c[1] * t71;
        // real block of 3, multiplier 2
        const V t76 = t9 + t15;
        const V t77 = t9 - t15;
        const V t78 = t76 + t3;
        const V t79 = c[0] * t76;
        const V t80 = t3 - t79;
        const V t81 = c[1] * t77;
        // real block of 3, multiplier 2
        const V t82 = t11 + t17;
        const V t83 = t11 - t17;
        const V t84 = t82 + t5;
        const V t85 = c[0] * t82;
        const V t86 = t5 - t85;
        const V t87 = c[1] * t83;
        // real block of 3, multiplier 2
        const V t88 = t78 + t84;
        const V t89 = t78 - t84;
        const V t90 = t88 + t72;
        const V t91 = c[0] * t88;
        const V t92 = t72 - t91;
        const V t93 = c[1] * t89;
        // real block of 9, multiplier 2
        const V t94 = c[2] * t81;
        const V t95 = c[3] * t80;
        const V t96 = t95 + t94;
        const V t97 = c[2] * t80;
        const V t98 = c[3] * t81;
        const V t99 = t98 - t97;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t86;
        const V t102 = t100 - t101;
        const V t103 = c[4] * t86;
        const V t104 = c[5] * t87;
        const V t105 = t104 + t103;
        // complex block of 3, multiplier 2
        const V t106 = t96 + t102;
        const V t107 = t99 - t105;
        const V t108 = t96 - t102;
        const V t109 = t99 + t105;
        const V t110 = t106 + t74;
        const V t111 = t107 + t75;
        const V t112 = c[0] * t106;
        const V t113 = t74 - t112;
        const V t114 = c[0] * t107;
        const V t115 = t75 - t114;
        const V t116 = c[1] * t108;
        const V t117 = c[1] * t109;
        const V t118 = t113 + t117;
        const V t119 = t115 - t116;
        const V t120 = t113 - t117;
        const V t121 = t115 + t116;
        // real block of 2
        const V x2i = io.im(2);
        const V x36i = io.im(36);
        const V t122 = x2i + x36i;
        const V t123 = x2i - x36i;
        // real block of 2
        const V x8i = io.im(8);
        const V x30i = io.im(30);
        const V t124 = x8i + x30i;
        const V t125 = x8i - x30i;
        // real block of 2
        const V x32i = io.im(32);
        const V x6i = io.im(6);
        const V t126 = x32i + x6i;
        const V t127 = x32i - x6i;
        // real block of 2
        const V x14i = io.im(14);
        const V x24i = io.im(24);
        const V t128 = x14i + x24i;
        const V t129 = x14i - x24i;
        // real block of 2
        const V x18i = io.im(18);
        const V x20i = io.im(20);
        const V t130 = x18i + x20i;
        const V t131 = x18i - x20i;
        // real block of 2
        const V x34i = io.im(34);
        const V x4i = io.im(4);
        const V t132 = x34i + x4i;
        const V t133 = x34i - x4i;
        // real block of 2
        const V x22i = io.im(22);
        const V x16i = io.im(16);
        const V t134 = x22i + x16i;
        const V t135 = x22i - x16i;
        // real block of 2
        const V x12i = io.im(12);
        const V x26i = io.im(26);
        const V t136 = x12i + x26i;
        const V t137 = x12i - x26i;
        // real block of 2
        const V x10i = io.im(10);
        const V x28i = io.im(28);
        const V t138 = x10i + x28i;
        const V t139 = x10i - x28i;
        // real block of 3, multiplier 2
        const V t140 = t128 + t134;
        const V t141 = t128 - t134;
        const V t142 = t140 + t122;
        const V t143 = c[0] * t140;
        const V t144 = t122 - t143;
        const V t145 = c[1] * t141;
        // real block of 3, multiplier 2
        const V t146 = t130 + t136;
        const V t147 = t130 - t136;
        const V t148 = t146 + t124;
        const V t149 = c[0] * t146;
        const V t150 = t124 - t149;
        const V t151 = c[1] * t147;
        // real block of 3, multiplier 2
        const V t152 = t132 + t138;
        const V t153 = t132 - t138;
        const V t154 = t152 + t126;
        const V t155 = c[0] * t152;
        const V t156 = t126 - t155;
        const V t157 = c[1] * t153;
        // real block of 3, multiplier 2
        const V t158 = t148 + t154;
        const V t159 = t148 - t154;
        const V t160 = t158 + t142;
        const V t161 = c[0] * t158;
        const V t162 = t142 - t161;
        const V t163 = c[1] * t159;
        // real block of 9, multiplier 2
        const V t164 = c[2] * t151;
        const V t165 = c[3] * t150;
        const V t166 = t165 + t164;
        const V t167 = c[2] * t150;
        const V t168 = c[3] * t151;
        const V t169 = t168 - t167;
        const V t170 = c[4] * t157;
        const V t171 = c[5] * t156;
        const V t172 = t170 - t171;
        const V t173 = c[4] * t156;
        const V t174 = c[5] * t157;
        const V t175 = t174 + t173;
        // complex block of 3, multiplier 2
        const V t176 = t166 + t172;
        const V t177 = t169 - t175;
        const V t178 = t166 - t172;
        const V t179 = t169 + t175;
        const V t180 = t176 + t144;
        const V t181 = t177 + t145;
        const V t182 = c[0] * t176;
        const V t183 = t144 - t182;
        const V t184 = c[0] * t177;
        const V t185 = t145 - t184;
        const V t186 = c[1] * t178;
        const V t187 = c[1] * t179;
        const V t188 = t183 + t187;
        const V t189 = t185 - t186;
        const V t190 = t183 - t187;
        const V t191 = t185 + t186;
        // real block of 3, multiplier 2
        const V t192 = t129 + t135;
        const V t193 = t129 - t135;
        const V t194 = t192 + t123;
        const V t195 = c[0] * t192;
        const V t196 = t123 - t195;
        const V t197 = c[1] * t193;
        // real block of 3, multiplier 2
        const V t198 = t131 + t137;
        const V t199 = t131 - t137;
        const V t200 = t198 + t125;
        const V t201 = c[0] * t198;
        const V t202 = t125 - t201;
        const V t203 = c[1] * t199;
        // real block of 3, multiplier 2
        const V t204 = t133 + t139;
        const V t205 = t133 - t139;
        const V t206 = t204 + t127;
        const V t207 = c[0] * t204;
        const V t208 = t127 - t207;
        const V t209 = c[1] * t205;
        // real block of 3, multiplier 2
        const V t210 = t200 + t206;
        const V t211 = t200 - t206;
        const V t212 = t210 + t194;
        const V t213 = c[0] * t210;
        const V t214 = t194 - t213;
        const V t215 = c[1] * t211;
        // real block of 9, multiplier 2
        const V t216 = c[2] * t203;
        const V t217 = c[3] * t202;
        const V t218 = t217 + t216;
        const V t219 = c[2] * t202;
        const V t220 = c[3] * t203;
        const V t221 = t220 - t219;
        const V t222 = c[4] * t209;
        const V t223 = c[5] * t208;
        const V t224 = t222 - t223;
        const V t225 = c[4] * t208;
        const V t226 = c[5] * t209;
        const V t227 = t226 + t225;
        // complex block of 3, multiplier 2
        const V t228 = t218 + t224;
        const V t229 = t221 - t227;
        const V t230 = t218 - t224;
        const V t231 = t221 + t227;
        const V t232 = t228 + t196;
        const V t233 = t229 + t197;
        const V t234 = c[0] * t228;
        const V t235 = t196 - t234;
        const V t236 = c[0] * t229;
        const V t237 = t197 - t236;
        const V t238 = c[1] * t230;
        const V t239 = c[1] * t231;
        const V t240 = t235 + t239;
        const V t241 = t237 - t238;
        const V t242 = t235 - t239;
        const V t243 = t237 + t238;
        // complex block of 19, multiplier 2
        const V x0r = io.re(0);
        const V t244 = x0r + t38;
        const V x0i = io.im(0);
        const V t245 = x0i + t160;
        const V t246 = c[26] * t38;
        const V t247 = x0r - t246;
        const V t248 = c[26] * t160;
        const V t249 = x0i - t248;
        const V t250 = c[6] * t243;
        const V t251 = c[7] * t242;
        const V t252 = t251 - t250;
        const V t253 = c[6] * t242;
        const V t254 = c[7] * t243;
        const V t255 = t254 + t253;
        const V t256 = c[6] * t121;
        const V t257 = c[7] * t120;
        const V t258 = t256 - t257;
        const V t259 = c[6] * t120;
        const V t260 = c[7] * t121;
        const V t261 = t260 + t259;
        const V t262 = c[8] * t59;
        const V t263 = c[9] * t58;
        const V t264 = t263 - t262;
        const V t265 = c[8] * t58;
        const V t266 = c[9] * t59;
        const V t267 = t266 + t265;
        const V t268 = c[8] * t181;
        const V t269 = c[9] * t180;
        const V t270 = t269 - t268;
        const V t271 = c[8] * t180;
        const V t272 = c[9] * t181;
        const V t273 = t272 + t271;
        const V t274 = c[10] * t215;
        const V t275 = c[11] * t214;
        const V t276 = t275 + t274;
        const V t277 = c[10] * t214;
        const V t278 = c[11] * t215;
        const V t279 = t277 - t278;
        const V t280 = c[10] * t93;
        const V t281 = c[11] * t92;
        const V t282 = t281 + t280;
        const V t283 = c[10] * t92;
        const V t284 = c[11] * t93;
        const V t285 = t284 - t283;
        const V t286 = c[12] * t67;
        const V t287 = c[13] * t66;
        const V t288 = t287 - t286;
        const V t289 = c[12] * t66;
        const V t290 = c[13] * t67;
        const V t291 = t290 + t289;
        const V t292 = c[12] * t189;
        const V t293 = c[13] * t188;
        const V t294 = t293 - t292;
        const V t295 = c[12] * t188;
        const V t296 = c[13] * t189;
        const V t297 = t296 + t295;
        const V t298 = c[14] * t241;
        const V t299 = c[15] * t240;
        const V t300 = t299 + t298;
        const V t301 = c[14] * t240;
        const V t302 = c[15] * t241;
        const V t303 = t301 - t302;
        const V t304 = c[14] * t119;
        const V t305 = c[15] * t118;
        const V t306 = t305 + t304;
        const V t307 = c[14] * t118;
        const V t308 = c[15] * t119;
        const V t309 = t308 - t307;
        const V t310 = c[16] * t41;
        const V t311 = c[17] * t40;
        const V t312 = t311 + t310;
        const V t313 = c[16] * t40;
        const V t314 = c[17] * t41;
        const V t315 = t314 - t313;
        const V t316 = c[16] * t163;
        const V t317 = c[17] * t162;
        const V t318 = t317 + t316;
        const V t319 = c[16] * t162;
        const V t320 = c[17] * t163;
        const V t321 = t320 - t319;
        const V t322 = c[18] * t233;
        const V t323 = c[19] * t232;
        const V t324 = t323 - t322;
        const V t325 = c[18] * t232;
        const V t326 = c[19] * t233;
        const V t327 = t326 + t325;
        const V t328 = c[18] * t111;
        const V t329 = c[19] * t110;
        const V t330 = t328 - t329;
        const V t331 = c[18] * t110;
        const V t332 = c[19] * t111;
        const V t333 = t332 + t331;
        const V t334 = c[20] * t69;
        const V t335 = c[21] * t68;
        const V t336 = t334 - t335;
        const V t337 = c[20] * t68;
        const V t338 = c[21] * t69;
        const V t339 = t338 + t337;
        const V t340 = c[20] * t191;
        const V t341 = c[21] * t190;
        const V t342 = t340 - t341;
        const V t343 = c[20] * t190;
        const V t344 = c[21] * t191;
        const V t345 = t344 + t343;
        const V t346 = c[27] * t212;
        const V t347 = c[27] * t90;
        // spectrum block of 2
        const V t348 = t247 - t346;
        const V t349 = t247 + t346;
        // complex block of 2
        const V t350 = t267 + t327;
        const V t351 = t264 + t324;
        const V t352 = t267 - t327;
        const V t353 = t264 - t324;
        // complex block of 2
        const V t354 = t291 + t303;
        const V t355 = t288 - t300;
        const V t356 = t303 - t291;
        const V t357 = t288 + t300;
        // complex block of 2
        const V t358 = t315 - t279;
        const V t359 = t312 + t276;
        const V t360 = t315 + t279;
        const V t361 = t312 - t276;
        // complex block of 2
        const V t362 = t255 - t339;
        const V t363 = t336 + t252;
        const V t364 = t339 + t255;
        const V t365 = t336 - t252;
        // spectrum block of 3, multiplier 2
        const V t366 = t359 + t348;
        const V t367 = c[0] * t359;
        const V t368 = t348 - t367;
        const V t369 = c[1] * t358;
        const V t370 = t368 - t369;
        const V t371 = t368 + t369;
        // complex block of 3, multiplier 2
        const V t372 = t362 + t354;
        const V t373 = t363 + t355;
        const V t374 = t362 - t354;
        const V t375 = t363 - t355;
        const V t376 = t372 + t350;
        const V t377 = t373 + t351;
        const V t378 = c[0] * t372;
        const V t379 = t350 - t378;
        const V t380 = c[0] * t373;
        const V t381 = t351 - t380;
        const V t382 = c[1] * t374;
        const V t383 = c[1] * t375;
        const V t384 = t379 + t383;
        const V t385 = t381 - t382;
        const V t386 = t379 - t383;
        const V t387 = t381 + t382;
        // spectrum block of 9, multiplier 2
        const V t388 = c[2] * t386;
        const V t389 = c[3] * t387;
        const V t390 = t389 - t388;
        const V t391 = c[4] * t384;
        const V t392 = c[5] * t385;
        const V t393 = t392 + t391;
        // spectrum block of 3, multiplier 2
        const V t394 = t377 + t366;
        const V t395 = c[0] * t377;
        const V t396 = t366 - t395;
        const V t397 = c[1] * t376;
        const V t398 = t396 - t397;
        const V t399 = t396 + t397;
        // spectrum block of 3, multiplier 2
        const V t400 = t390 + t371;
        const V t401 = c[0] * t390;
        const V t402 = t371 - t401;
        const V t403 = c[22] * t386;
        const V t404 = c[23] * t387;
        const V t405 = t403 + t404;
        const V t406 = t402 - t405;
        const V t407 = t402 + t405;
        // spectrum block of 3, multiplier 2
        const V t408 = t370 - t393;
        const V t409 = c[0] * t393;
        const V t410 = t409 + t370;
        const V t411 = c[24] * t385;
        const V t412 = c[25] * t384;
        const V t413 = t411 - t412;
        const V t414 = t410 - t413;
        const V t415 = t410 + t413;
        // spectrum block of 3, multiplier 2
        const V t416 = t361 + t349;
        const V t417 = c[0] * t361;
        const V t418 = t349 - t417;
        const V t419 = c[1] * t360;
        const V t420 = t418 - t419;
        const V t421 = t418 + t419;
        // complex block of 3, multiplier 2
        const V t422 = t364 + t356;
        const V t423 = t365 + t357;
        const V t424 = t356 - t364;
        const V t425 = t365 - t357;
        const V t426 = t352 - t422;
        const V t427 = t423 + t353;
        const V t428 = c[0] * t422;
        const V t429 = t428 + t352;
        const V t430 = c[0] * t423;
        const V t431 = t353 - t430;
        const V t432 = c[1] * t424;
        const V t433 = c[1] * t425;
        const V t434 = t429 + t433;
        const V t435 = t431 - t432;
        const V t436 = t429 - t433;
        const V t437 = t431 + t432;
        // spectrum block of 9, multiplier 2
        const V t438 = c[2] * t436;
        const V t439 = c[3] * t437;
        const V t440 = t439 - t438;
        const V t441 = c[4] * t434;
        const V t442 = c[5] * t435;
        const V t443 = t442 + t441;
        // spectrum block of 3, multiplier 2
        const V t444 = t427 + t416;
        const V t445 = c[0] * t427;
        const V t446 = t416 - t445;
        const V t447 = c[1] * t426;
        const V t448 = t446 - t447;
        const V t449 = t446 + t447;
        // spectrum block of 3, multiplier 2
        const V t450 = t440 + t421;
        const V t451 = c[0] * t440;
        const V t452 = t421 - t451;
        const V t453 = c[22] * t436;
        const V t454 = c[23] * t437;
        const V t455 = t453 + t454;
        const V t456 = t452 - t455;
        const V t457 = t452 + t455;
        // spectrum block of 3, multiplier 2
        const V t458 = t420 - t443;
        const V t459 = c[0] * t443;
        const V t460 = t459 + t420;
        const V t461 = c[24] * t435;
        const V t462 = c[25] * t434;
        const V t463 = t461 - t462;
        const V t464 = t460 - t463;
        const V t465 = t460 + t463;
        // spectrum block of 2
        const V t466 = t249 + t347;
        const V t467 = t249 - t347;
        // complex block of 2
        const V t468 = t273 - t333;
        const V t469 = t270 + t330;
        const V t470 = t273 + t333;
        const V t471 = t270 - t330;
        // complex block of 2
        const V t472 = t297 + t309;
        const V t473 = t294 + t306;
        const V t474 = t309 - t297;
        const V t475 = t294 - t306;
        // complex block of 2
        const V t476 = t321 - t285;
        const V t477 = t318 - t282;
        const V t478 = t321 + t285;
        const V t479 = t318 + t282;
        // complex block of 2
        const V t480 = t345 + t261;
        const V t481 = t342 + t258;
        const V t482 = t261 - t345;
        const V t483 = t342 - t258;
        // spectrum block of 3, multiplier 2
        const V t484 = t477 + t466;
        const V t485 = c[0] * t477;
        const V t486 = t466 - t485;
        const V t487 = c[1] * t476;
        const V t488 = t486 - t487;
        const V t489 = t486 + t487;
        // complex block of 3, multiplier 2
        const V t490 = t472 - t480;
        const V t491 = t481 + t473;
        const V t492 = t480 + t472;
        const V t493 = t481 - t473;
        const V t494 = t490 + t468;
        const V t495 = t491 + t469;
        const V t496 = c[0] * t490;
        const V t497 = t468 - t496;
        const V t498 = c[0] * t491;
        const V t499 = t469 - t498;
        const V t500 = c[1] * t492;
        const V t501 = c[1] * t493;
        const V t502 = t497 + t501;
        const V t503 = t499 + t500;
        const V t504 = t497 - t501;
        const V t505 = t499 - t500;
        // spectrum block of 9, multiplier 2
        const V t506 = c[2] * t504;
        const V t507 = c[3] * t505;
        const V t508 = t507 - t506;
        const V t509 = c[4] * t502;
        const V t510 = c[5] * t503;
        const V t511 = t510 + t509;
        // spectrum block of 3, multiplier 2
        const V t512 = t495 + t484;
        const V t513 = c[0] * t495;
        const V t514 = t484 - t513;
        const V t515 = c[1] * t494;
        const V t516 = t514 - t515;
        const V t517 = t514 + t515;
        // spectrum block of 3, multiplier 2
        const V t518 = t508 + t489;
        const V t519 = c[0] * t508;
        const V t520 = t489 - t519;
        const V t521 = c[22] * t504;
        const V t522 = c[23] * t505;
        const V t523 = t521 + t522;
        const V t524 = t520 - t523;
        const V t525 = t520 + t523;
        // spectrum block of 3, multiplier 2
        const V t526 = t488 - t511;
        const V t527 = c[0] * t511;
        const V t528 = t527 + t488;
        const V t529 = c[24] * t503;
        const V t530 = c[25] * t502;
        const V t531 = t529 - t530;
        const V t532 = t528 - t531;
        const V t533 = t528 + t531;
        // spectrum block of 3, multiplier 2
        const V t534 = t479 + t467;
        const V t535 = c[0] * t479;
        const V t536 = t467 - t535;
        const V t537 = c[1] * t478;
        const V t538 = t536 - t537;
        const V t539 = t536 + t537;
        // complex block of 3, multiplier 2
        const V t540 = t482 - t474;
        const V t541 = t483 + t475;
        const V t542 = t482 + t474;
        const V t543 = t483 - t475;
        const V t544 = t540 + t470;
        const V t545 = t541 + t471;
        const V t546 = c[0] * t540;
        const V t547 = t470 - t546;
        const V t548 = c[0] * t541;
        const V t549 = t471 - t548;
        const V t550 = c[1] * t542;
        const V t551 = c[1] * t543;
        const V t552 = t547 + t551;
        const V t553 = t549 - t550;
        const V t554 = t547 - t551;
        const V t555 = t549 + t550;
        // spectrum block of 9, multiplier 2
        const V t556 = c[2] * t554;
        const V t557 = c[3] * t555;
        const V t558 = t557 - t556;
        const V t559 = c[4] * t552;
        const V t560 = c[5] * t553;
        const V t561 = t560 + t559;
        // spectrum block of 3, multiplier 2
        const V t562 = t545 + t534;
        const V t563 = c[0] * t545;
        const V t564 = t534 - t563;
        const V t565 = c[1] * t544;
        const V t566 = t564 - t565;
        const V t567 = t564 + t565;
        // spectrum block of 3, multiplier 2
        const V t568 = t558 + t539;
        const V t569 = c[0] * t558;
        const V t570 = t539 - t569;
        const V t571 = c[22] * t554;
        const V t572 = c[23] * t555;
        const V t573 = t571 + t572;
        const V t574 = t570 - t573;
        const V t575 = t570 + t573;
        // spectrum block of 3, multiplier 2
        const V t576 = t538 - t561;
        const V t577 = c[0] * t561;
        const V t578 = t577 + t538;
        const V t579 = c[24] * t553;
        const V t580 = c[25] * t552;
        const V t581 = t579 - t580;
        const V t582 = t578 - t581;
        const V t583 = t578 + t581;
        // real block of 2
        const V x21r = io.re(21);
        const V x17r = io.re(17);
        const V t584 = x21r + x17r;
        const V t585 = x21r - x17r;
        // real block of 2
        const V x27r = io.re(27);
        const V x11r = io.re(11);
        const V t586 = x27r + x11r;
        const V t587 = x27r - x11r;
        // real block of 2
        const V x13r = io.re(13);
        const V x25r = io.re(25);
        const V t588 = x13r + x25r;
        const V t589 = x13r - x25r;
        // real block of 2
        const V x33r = io.re(33);
        const V x5r = io.re(5);
        const V t590 = x33r + x5r;
        const V t591 = x33r - x5r;
        // real block of 2
        const V x37r = io.re(37);
        const V x1r = io.re(1);
        const V t592 = x37r + x1r;
        const V t593 = x37r - x1r;
        // real block of 2
        const V x15r = io.re(15);
        const V x23r = io.re(23);
        const V t594 = x15r + x23r;
        const V t595 = x15r - x23r;
        // real block of 2
        const V x3r = io.re(3);
        const V x35r = io.re(35);
        const V t596 = x3r + x35r;
        const V t597 = x3r - x35r;
        // real block of 2
        const V x31r = io.re(31);
        const V x7r = io.re(7);
        const V t598 = x31r + x7r;
        const V t599 = x31r - x7r;
        // real block of 2
        const V x29r = io.re(29);
        const V x9r = io.re(9);
        const V t600 = x29r + x9r;
        const V t601 = x29r - x9r;
        // real block of 3, multiplier 2
        const V t602 = t590 + t596;
        const V t603 = t590 - t596;
        const V t604 = t602 + t584;
        const V t605 = c[0] * t602;
        const V t606 = t584 - t605;
        const V t607 = c[1] * t603;
        // real block of 3, multiplier 2
        const V t608 = t592 + t598;
        const V t609 = t592 - t598;
        const V t610 = t608 + t586;
        const V t611 = c[0] * t608;
        const V t612 = t586 - t611;
        const V t613 = c[1] * t609;
        // real block of 3, multiplier 2
        const V t614 = t594 + t600;
        const V t615 = t594 - t600;
        const V t616 = t614 + t588;
        const V t617 = c[0] * t614;
        const V t618 = t588 - t617;
        const V t619 = c[1] * t615;
        // real block of 3, multiplier 2
        const V t620 = t610 + t616;
        const V t621 = t610 - t616;
        const V t622 = t620 + t604;
        const V t623 = c[0] * t620;
        const V t624 = t604 - t623;
        const V t625 = c[1] * t621;
        // real block of 9, multiplier 2
        const V t626 = c[2] * t613;
        const V t627 = c[3] * t612;
        const V t628 = t627 + t626;
        const V t629 = c[2] * t612;
        const V t630 = c[3] * t613;
        const V t631 = t630 - t629;
        const V t632 = c[4] * t619;
        const V t633 = c[5] * t618;
        const V t634 = t632 - t633;
        const V t635 = c[4] * t618;
        const V t636 = c[5] * t619;
        const V t637 = t636 + t635;
        // complex block of 3, multiplier 2
        const V t638 = t628 + t634;
        const V t639 = t631 - t637;
        const V t640 = t628 - t634;
        const V t641 = t631 + t637;
        const V t642 = t638 + t606;
        const V t643 = t639 + t607;
        const V t644 = c[0] * t638;
        const V t645 = t606 - t644;
        const V t646 = c[0] * t639;
        const V t647 = t607 - t646;
        const V t648 = c[1] * t640;
        const V t649 = c[1] * t641;
        const V t650 = t645 + t649;
        const V t651 = t647 - t648;
        const V t652 = t645 - t649;
        const V t653 = t647 + t648;
        // real block of 3, multiplier 2
        const V t654 = t591 + t597;
        const V t655 = t591 - t597;
        const V t656 = t654 + t585;
        const V t657 = c[0] * t654;
        const V t658 = t585 - t657;
        const V t659 = c[1] * t655;
        // real block of 3, multiplier 2
        const V t660 = t593 + t599;
        const V t661 = t593 - t599;
        const V t662 = t660 + t587;
        const V t663 = c[0] * t660;
        const V t664 = t587 - t663;
        const V t665 = c[1] * t661;
        // real block of 3, multiplier 2
        const V t666 = t595 + t601;
        const V t667 = t595 - t601;
        const V t668 = t666 + t589;
        const V t669 = c[0] * t666;
        const V t670 = t589 - t669;
        const V t671 = c[1] * t667;
        // real block of 3, multiplier 2
        const V t672 = t662 + t668;
        const V t673 = t662 - t668;
        const V t674 = t672 + t656;
        const V t675 = c[0] * t672;
        const V t676 = t656 - t675;
        const V t677 = c[1] * t673;
        // real block of 9, multiplier 2
        const V t678 = c[2] * t665;
        const V t679 = c[3] * t664;
        const V t680 = t679 + t678;
        const V t681 = c[2] * t664;
        const V t682 = c[3] * t665;
        const V t683 = t682 - t681;
        const V t684 = c[4] * t671;
        const V t685 = c[5] * t670;
        const V t686 = t684 - t685;
        const V t687 = c[4] * t670;
        const V t688 = c[5] * t671;
        const V t689 = t688 + t687;
        // complex block of 3, multiplier 2
        const V t690 = t680 + t686;
        const V t691 = t683 - t689;
        const V t692 = t680 - t686;
        const V t693 = t683 + t689;
        const V t694 = t690 + t658;
        const V t695 = t691 + t659;
        const V t696 = c[0] * t690;
        const V t697 = t658 - t696;
        const V t698 = c[0] * t691;
        const V t699 = t659 - t698;
        const V t700 = c[1] * t692;
        const V t701 = c[1] * t693;
        const V t702 = t697 + t701;
        const V t703 = t699 - t700;
        const V t704 = t697 - t701;
        const V t705 = t699 + t700;
        // real block of 2
        const V x21i = io.im(21);
        const V x17i = io.im(17);
        const V t706 = x21i + x17i;
        const V t707 = x21i - x17i;
        // real block of 2
        const V x27i = io.im(27);
        const V x11i = io.im(11);
        const V t708 = x27i + x11i;
        const V t709 = x27i - x11i;
        // real block of 2
        const V x13i = io.im(13);
        const V x25i = io.im(25);
        const V t710 = x13i + x25i;
        const V t711 = x13i - x25i;
        // real block of 2
        const V x33i = io.im(33);
        const V x5i = io.im(5);
        const V t712 = x33i + x5i;
        const V t713 = x33i - x5i;
        // real block of 2
        const V x37i = io.im(37);
        const V x1i = io.im(1);
        const V t714 = x37i + x1i;
        const V t715 = x37i - x1i;
        // real block of 2
        const V x15i = io.im(15);
        const V x23i = io.im(23);
        const V t716 = x15i + x23i;
        const V t717 = x15i - x23i;
        // real block of 2
        const V x3i = io.im(3);
        const V x35i = io.im(35);
        const V t718 = x3i + x35i;
        const V t719 = x3i - x35i;
        // real block of 2
        const V x31i = io.im(31);
        const V x7i = io.im(7);
        const V t720 = x31i + x7i;
        const V t721 = x31i - x7i;
        // real block of 2
        const V x29i = io.im(29);
        const V x9i = io.im(9);
        const V t722 = x29i + x9i;
        const V t723 = x29i - x9i;
        // real block of 3, multiplier 2
        const V t724 = t712 + t718;
        const V t725 = t712 - t718;
        const V t726 = t724 + t706;
        const V t727 = c[0] * t724;
        const V t728 = t706 - t727;
        const V t729 = c[1] * t725;
        // real block of 3, multiplier 2
        const V t730 = t714 + t720;
        const V t731 = t714 - t720;
        const V t732 = t730 + t708;
        const V t733 = c[0] * t730;
        const V t734 = t708 - t733;
        const V t735 = c[1] * t731;
        // real block of 3, multiplier 2
        const V t736 = t716 + t722;
        const V t737 = t716 - t722;
        const V t738 = t736 + t710;
        const V t739 = c[0] * t736;
        const V t740 = t710 - t739;
        const V t741 = c[1] * t737;
        // real block of 3, multiplier 2
        const V t742 = t732 + t738;
        const V t743 = t732 - t738;
        const V t744 = t742 + t726;
        const V t745 = c[0] * t742;
        const V t746 = t726 - t745;
        const V t747 = c[1] * t743;
        // real block of 9, multiplier 2
        const V t748 = c[2] * t735;
        const V t749 = c[3] * t734;
        const V t750 = t749 + t748;
        const V t751 = c[2] * t734;
        const V t752 = c[3] * t735;
        const V t753 = t752 - t751;
        const V t754 = c[4] * t741;
        const V t755 = c[5] * t740;
        const V t756 = t754 - t755;
        const V t757 = c[4] * t740;
        const V t758 = c[5] * t741;
        const V t759 = t758 + t757;
        // complex block of 3, multiplier 2
        const V t760 = t750 + t756;
        const V t761 = t753 - t759;
        const V t762 = t750 - t756;
        const V t763 = t753 + t759;
        const V t764 = t760 + t728;
        const V t765 = t761 + t729;
        const V t766 = c[0] * t760;
        const V t767 = t728 - t766;
        const V t768 = c[0] * t761;
        const V t769 = t729 - t768;
        const V t770 = c[1] * t762;
        const V t771 = c[1] * t763;
        const V t772 = t767 + t771;
        const V t773 = t769 - t770;
        const V t774 = t767 - t771;
        const V t775 = t769 + t770;
        // real block of 3, multiplier 2
        const V t776 = t713 + t719;
        const V t777 = t713 - t719;
        const V t778 = t776 + t707;
        const V t779 = c[0] * t776;
        const V t780 = t707 - t779;
        const V t781 = c[1] * t777;
        // real block of 3, multiplier 2
        const V t782 = t715 + t721;
        const V t783 = t715 - t721;
        const V t784 = t782 + t709;
        const V t785 = c[0] * t782;
        const V t786 = t709 - t785;
        const V t787 = c[1] * t783;
        // real block of 3, multiplier 2
        const V t788 = t717 + t723;
        const V t789 = t717 - t723;
        const V t790 = t788 + t711;
        const V t791 = c[0] * t788;
        const V t792 = t711 - t791;
        const V t793 = c[1] * t789;
        // real block of 3, multiplier 2
        const V t794 = t784 + t790;
        const V t795 = t784 - t790;
        const V t796 = t794 + t778;
        const V t797 = c[0] * t794;
        const V t798 = t778 - t797;
        const V t799 = c[1] * t795;
        // real block of 9, multiplier 2
        const V t800 = c[2] * t787;
        const V t801 = c[3] * t786;
        const V t802 = t801 + t800;
        const V t803 = c[2] * t786;
        const V t804 = c[3] * t787;
        const V t805 = t804 - t803;
        const V t806 = c[4] * t793;
        const V t807 = c[5] * t792;
        const V t808 = t806 - t807;
        const V t809 = c[4] * t792;
        const V t810 = c[5] * t793;
        const V t811 = t810 + t809;
        // complex block of 3, multiplier 2
        const V t812 = t802 + t808;
        const V t813 = t805 - t811;
        const V t814 = t802 - t808;
        const V t815 = t805 + t811;
        const V t816 = t812 + t780;
        const V t817 = t813 + t781;
        const V t818 = c[0] * t812;
        const V t819 = t780 - t818;
        const V t820 = c[0] * t813;
        const V t821 = t781 - t820;
        const V t822 = c[1] * t814;
        const V t823 = c[1] * t815;
        const V t824 = t819 + t823;
        const V t825 = t821 - t822;
        const V t826 = t819 - t823;
        const V t827 = t821 + t822;
        // complex block of 19, multiplier 2
        const V x19r = io.re(19);
        const V t828 = x19r + t622;
        const V x19i = io.im(19);
        const V t829 = x19i + t744;
        const V t830 = c[26] * t622;
        const V t831 = x19r - t830;
        const V t832 = c[26] * t744;
        const V t833 = x19i - t832;
        const V t834 = c[6] * t827;
        const V t835 = c[7] * t826;
        const V t836 = t835 - t834;
        const V t837 = c[6] * t826;
        const V t838 = c[7] * t827;
        const V t839 = t838 + t837;
        const V t840 = c[6] * t705;
        const V t841 = c[7] * t704;
        const V t842 = t840 - t841;
        const V t843 = c[6] * t704;
        const V t844 = c[7] * t705;
        const V t845 = t844 + t843;
        const V t846 = c[8] * t643;
        const V t847 = c[9] * t642;
        const V t848 = t847 - t846;
        const V t849 = c[8] * t642;
        const V t850 = c[9] * t643;
        const V t851 = t850 + t849;
        const V t852 = c[8] * t765;
        const V t853 = c[9] * t764;
        const V t854 = t853 - t852;
        const V t855 = c[8] * t764;
        const V t856 = c[9] * t765;
        const V t857 = t856 + t855;
        const V t858 = c[10] * t799;
        const V t859 = c[11] * t798;
        const V t860 = t859 + t858;
        const V t861 = c[10] * t798;
        const V t862 = c[11] * t799;
        const V t863 = t861 - t862;
        const V t864 = c[10] * t677;
        const V t865 = c[11] * t676;
        const V t866 = t865 + t864;
        const V t867 = c[10] * t676;
        const V t868 = c[11] * t677;
        const V t869 = t868 - t867;
        const V t870 = c[12] * t651;
        const V t871 = c[13] * t650;
        const V t872 = t871 - t870;
        const V t873 = c[12] * t650;
        const V t874 = c[13] * t651;
        const V t875 = t874 + t873;
        const V t876 = c[12] * t773;
        const V t877 = c[13] * t772;
        const V t878 = t877 - t876;
        const V t879 = c[12] * t772;
        const V t880 = c[13] * t773;
        const V t881 = t880 + t879;
        const V t882 = c[14] * t825;
        const V t883 = c[15] * t824;
        const V t884 = t883 + t882;
        const V t885 = c[14] * t824;
        const V t886 = c[15] * t825;
        const V t887 = t885 - t886;
        const V t888 = c[14] * t703;
        const V t889 = c[15] * t702;
        const V t890 = t889 + t888;
        const V t891 = c[14] * t702;
        const V t892 = c[15] * t703;
        const V t893 = t892 - t891;
        const V t894 = c[16] * t625;
        const V t895 = c[17] * t624;
        const V t896 = t895 + t894;
        const V t897 = c[16] * t624;
        const V t898 = c[17] * t625;
        const V t899 = t898 - t897;
        const V t900 = c[16] * t747;
        const V t901 = c[17] * t746;
        const V t902 = t901 + t900;
        const V t903 = c[16] * t746;
        const V t904 = c[17] * t747;
        const V t905 = t904 - t903;
        const V t906 = c[18] * t817;
        const V t907 = c[19] * t816;
        const V t908 = t907 - t906;
        const V t909 = c[18] * t816;
        const V t910 = c[19] * t817;
        const V t911 = t910 + t909;
        const V t912 = c[18] * t695;
        const V t913 = c[19] * t694;
        const V t914 = t912 - t913;
        const V t915 = c[18] * t694;
        const V t916 = c[19] * t695;
        const V t917 = t916 + t915;
        const V t918 = c[20] * t653;
        const V t919 = c[21] * t652;
        const V t920 = t918 - t919;
        const V t921 = c[20] * t652;
        const V t922 = c[21] * t653;
        const V t923 = t922 + t921;
        const V t924 = c[20] * t775;
        const V t925 = c[21] * t774;
        const V t926 = t924 - t925;
        const V t927 = c[20] * t774;
        const V t928 = c[21] * t775;
        const V t929 = t928 + t927;
        const V t930 = c[27] * t796;
        const V t931 = c[27] * t674;
        // spectrum block of 2
        const V t932 = t831 - t930;
        const V t933 = t831 + t930;
        // complex block of 2
        const V t934 = t851 + t911;
        const V t935 = t848 + t908;
        const V t936 = t851 - t911;
        const V t937 = t848 - t908;
        // complex block of 2
        const V t938 = t875 + t887;
        const V t939 = t872 - t884;
        const V t940 = t887 - t875;
        const V t941 = t872 + t884;
        // complex block of 2
        const V t942 = t899 - t863;
        const V t943 = t896 + t860;
        const V t944 = t899 + t863;
        const V t945 = t896 - t860;
        // complex block of 2
        const V t946 = t839 - t923;
        const V t947 = t920 + t836;
        const V t948 = t923 + t839;
        const V t949 = t920 - t836;
        // spectrum block of 3, multiplier 2
        const V t950 = t943 + t932;
        const V t951 = c[0] * t943;
        const V t952 = t932 - t951;
        const V t953 = c[1] * t942;
        const V t954 = t952 - t953;
        const V t955 = t952 + t953;
        // complex block of 3, multiplier 2
        const V t956 = t946 + t938;
        const V t957 = t947 + t939;
        const V t958 = t946 - t938;
        const V t959 = t947 - t939;
        const V t960 = t956 + t934;
        const V t961 = t957 + t935;
        const V t962 = c[0] * t956;
        const V t963 = t934 - t962;
        const V t964 = c[0] * t957;
        const V t965 = t935 - t964;
        const V t966 = c[1] * t958;
        const V t967 = c[1] * t959;
        const V t968 = t963 + t967;
        const V t969 = t965 - t966;
        const V t970 = t963 - t967;
        const V t971 = t965 + t966;
        // spectrum block of 9, multiplier 2
        const V t972 = c[2] * t970;
        const V t973 = c[3] * t971;
        const V t974 = t973 - t972;
        const V t975 = c[4] * t968;
        const V t976 = c[5] * t969;
        const V t977 = t976 + t975;
        // spectrum block of 3, multiplier 2
        const V t978 = t961 + t950;
        const V t979 = c[0] * t961;
        const V t980 = t950 - t979;
        const V t981 = c[1] * t960;
        const V t982 = t980 - t981;
        const V t983 = t980 + t981;
        // spectrum block of 3, multiplier 2
        const V t984 = t974 + t955;
        const V t985 = c[0] * t974;
        const V t986 = t955 - t985;
        const V t987 = c[22] * t970;
        const V t988 = c[23] * t971;
        const V t989 = t987 + t988;
        const V t990 = t986 - t989;
        const V t991 = t986 + t989;
        // spectrum block of 3, multiplier 2
        const V t992 = t954 - t977;
        const V t993 = c[0] * t977;
        const V t994 = t993 + t954;
        const V t995 = c[24] * t969;
        const V t996 = c[25] * t968;
        const V t997 = t995 - t996;
        const V t998 = t994 - t997;
        const V t999 = t994 + t997;
        // spectrum block of 3, multiplier 2
        const V t1000 = t945 + t933;
        const V t1001 = c[0] * t945;
        const V t1002 = t933 - t1001;
        const V t1003 = c[1] * t944;
        const V t1004 = t1002 - t1003;
        const V t1005 = t1002 + t1003;
        // complex block of 3, multiplier 2
        const V t1006 = t948 + t940;
        const V t1007 = t949 + t941;
        const V t1008 = t940 - t948;
        const V t1009 = t949 - t941;
        const V t1010 = t936 - t1006;
        const V t1011 = t1007 + t937;
        const V t1012 = c[0] * t1006;
        const V t1013 = t1012 + t936;
        const V t1014 = c[0] * t1007;
        const V t1015 = t937 - t1014;
        const V t1016 = c[1] * t1008;
        const V t1017 = c[1] * t1009;
        const V t1018 = t1013 + t1017;
        const V t1019 = t1015 - t1016;
        const V t1020 = t1013 - t1017;
        const V t1021 = t1015 + t1016;
        // spectrum block of 9, multiplier 2
        const V t1022 = c[2] * t1020;
        const V t1023 = c[3] * t1021;
        const V t1024 = t1023 - t1022;
        const V t1025 = c[4] * t1018;
        const V t1026 = c[5] * t1019;
        const V t1027 = t1026 + t1025;
        // spectrum block of 3, multiplier 2
        const V t1028 = t1011 + t1000;
        const V t1029 = c[0] * t1011;
        const V t1030 = t1000 - t1029;
        const V t1031 = c[1] * t1010;
        const V t1032 = t1030 - t1031;
        const V t1033 = t1030 + t1031;
        // spectrum block of 3, multiplier 2
        const V t1034 = t1024 + t1005;
        const V t1035 = c[0] * t1024;
        const V t1036 = t1005 - t1035;
        const V t1037 = c[22] * t1020;
        const V t1038 = c[23] * t1021;
        const V t1039 = t1037 + t1038;
        const V t1040 = t1036 - t1039;
        const V t1041 = t1036 + t1039;
        // spectrum block of 3, multiplier 2
        const V t1042 = t1004 - t1027;
        const V t1043 = c[0] * t1027;
        const V t1044 = t1043 + t1004;
        const V t1045 = c[24] * t1019;
        const V t1046 = c[25] * t1018;
        const V t1047 = t1045 - t1046;
        const V t1048 = t1044 - t1047;
        const V t1049 = t1044 + t1047;
        // spectrum block of 2
        const V t1050 = t833 + t931;
        const V t1051 = t833 - t931;
        // complex block of 2
        const V t1052 = t857 - t917;
        const V t1053 = t854 + t914;
        const V t1054 = t857 + t917;
        const V t1055 = t854 - t914;
        // complex block of 2
        const V t1056 = t881 + t893;
        const V t1057 = t878 + t890;
        const V t1058 = t893 - t881;
        const V t1059 = t878 - t890;
        // complex block of 2
        const V t1060 = t905 - t869;
        const V t1061 = t902 - t866;
        const V t1062 = t905 + t869;
        const V t1063 = t902 + t866;
        // complex block of 2
        const V t1064 = t929 + t845;
        const V t1065 = t926 + t842;
        const V t1066 = t845 - t929;
        const V t1067 = t926 - t842;
        // spectrum block of 3, multiplier 2
        const V t1068 = t1061 + t1050;
        const V t1069 = c[0] * t1061;
        const V t1070 = t1050 - t1069;
        const V t1071 = c[1] * t1060;
        const V t1072 = t1070 - t1071;
        const V t1073 = t1070 + t1071;
        // complex block of 3, multiplier 2
        const V t1074 = t1056 - t1064;
        const V t1075 = t1065 + t1057;
        const V t1076 = t1064 + t1056;
        const V t1077 = t1065 - t1057;
        const V t1078 = t1074 + t1052;
        const V t1079 = t1075 + t1053;
        const V t1080 = c[0] * t1074;
        const V t1081 = t1052 - t1080;
        const V t1082 = c[0] * t1075;
        const V t1083 = t1053 - t1082;
        const V t1084 = c[1] * t1076;
        const V t1085 = c[1] * t1077;
        const V t1086 = t1081 + t1085;
        const V t1087 = t1083 + t1084;
        const V t1088 = t1081 - t1085;
        const V t1089 = t1083 - t1084;
        // spectrum block of 9, multiplier 2
        const V t1090 = c[2] * t1088;
        const V t1091 = c[3] * t1089;
        const V t1092 = t1091 - t1090;
        const V t1093 = c[4] * t1086;
        const V t1094 = c[5] * t1087;
        const V t1095 = t1094 + t1093;
        // spectrum block of 3, multiplier 2
        const V t1096 = t1079 + t1068;
        const V t1097 = c[0] * t1079;
        const V t1098 = t1068 - t1097;
        const V t1099 = c[1] * t1078;
        const V t1100 = t1098 - t1099;
        const V t1101 = t1098 + t1099;
        // spectrum block of 3, multiplier 2
        const V t1102 = t1092 + t1073;
        const V t1103 = c[0] * t1092;
        const V t1104 = t1073 - t1103;
        const V t1105 = c[22] * t1088;
        const V t1106 = c[23] * t1089;
        const V t1107 = t1105 + t1106;
        const V t1108 = t1104 - t1107;
        const V t1109 = t1104 + t1107;
        // spectrum block of 3, multiplier 2
        const V t1110 = t1072 - t1095;
        const V t1111 = c[0] * t1095;
        const V t1112 = t1111 + t1072;
        const V t1113 = c[24] * t1087;
        const V t1114 = c[25] * t1086;
        const V t1115 = t1113 - t1114;
        const V t1116 = t1112 - t1115;
        const V t1117 = t1112 + t1115;
        // spectrum block of 3, multiplier 2
        const V t1118 = t1063 + t1051;
        const V t1119 = c[0] * t1063;
        const V t1120 = t1051 - t1119;
        const V t1121 = c[1] * t1062;
        const V t1122 = t1120 - t1121;
        const V t1123 = t1120 + t1121;
        // complex block of 3, multiplier 2
        const V t1124 = t1066 - t1058;
        const V t1125 = t1067 + t1059;
        const V t1126 = t1066 + t1058;
        const V t1127 = t1067 - t1059;
        const V t1128 = t1124 + t1054;
        const V t1129 = t1125 + t1055;
        const V t1130 = c[0] * t1124;
        const V t1131 = t1054 - t1130;
        const V t1132 = c[0] * t1125;
        const V t1133 = t1055 - t1132;
        const V t1134 = c[1] * t1126;
        const V t1135 = c[1] * t1127;
        const V t1136 = t1131 + t1135;
        const V t1137 = t1133 - t1134;
        const V t1138 = t1131 - t1135;
        const V t1139 = t1133 + t1134;
        // spectrum block of 9, multiplier 2
        const V t1140 = c[2] * t1138;
        const V t1141 = c[3] * t1139;
        const V t1142 = t1141 - t1140;
        const V t1143 = c[4] * t1136;
        const V t1144 = c[5] * t1137;
        const V t1145 = t1144 + t1143;
        // spectrum block of 3, multiplier 2
        const V t1146 = t1129 + t1118;
        const V t1147 = c[0] * t1129;
        const V t1148 = t1118 - t1147;
        const V t1149 = c[1] * t1128;
        const V t1150 = t1148 - t1149;
        const V t1151 = t1148 + t1149;
        // spectrum block of 3, multiplier 2
        const V t1152 = t1142 + t1123;
        const V t1153 = c[0] * t1142;
        const V t1154 = t1123 - t1153;
        const V t1155 = c[22] * t1138;
        const V t1156 = c[23] * t1139;
        const V t1157 = t1155 + t1156;
        const V t1158 = t1154 - t1157;
        const V t1159 = t1154 + t1157;
        // spectrum block of 3, multiplier 2
        const V t1160 = t1122 - t1145;
        const V t1161 = c[0] * t1145;
        const V t1162 = t1161 + t1122;
        const V t1163 = c[24] * t1137;
        const V t1164 = c[25] * t1136;
        const V t1165 = t1163 - t1164;
        const V t1166 = t1162 - t1165;
        const V t1167 = t1162 + t1165;
        // complex block of 2
        const V t1168 = t244 + t828;
        io.re(0, t1168);
        const V t1169 = t245 + t829;
        io.im(0, t1169);
        const V t1170 = t244 - t828;
        io.re(19, t1170);
        const V t1171 = t245 - t829;
        io.im(19, t1171);
        // complex block of 2
        const V t1172 = t394 + t978;
        io.re(2, t1172);
        const V t1173 = t512 + t1096;
        io.im(2, t1173);
        const V t1174 = t394 - t978;
        io.re(21, t1174);
        const V t1175 = t512 - t1096;
        io.im(21, t1175);
        // complex block of 2
        const V t1176 = t457 + t1041;
        io.re(4, t1176);
        const V t1177 = t575 + t1159;
        io.im(4, t1177);
        const V t1178 = t457 - t1041;
        io.re(23, t1178);
        const V t1179 = t575 - t1159;
        io.im(23, t1179);
        // complex block of 2
        const V t1180 = t456 + t1040;
        io.re(6, t1180);
        const V t1181 = t574 + t1158;
        io.im(6, t1181);
        const V t1182 = t456 - t1040;
        io.re(25, t1182);
        const V t1183 = t574 - t1158;
        io.im(25, t1183);
        // complex block of 2
        const V t1184 = t414 + t998;
        io.re(8, t1184);
        const V t1185 = t532 + t1116;
        io.im(8, t1185);
        const V t1186 = t414 - t998;
        io.re(27, t1186);
        const V t1187 = t532 - t1116;
        io.im(27, t1187);
        // complex block of 2
        const V t1188 = t400 + t984;
        io.re(10, t1188);
        const V t1189 = t518 + t1102;
        io.im(10, t1189);
        const V t1190 = t400 - t984;
        io.re(29, t1190);
        const V t1191 = t518 - t1102;
        io.im(29, t1191);
        // complex block of 2
        const V t1192 = t408 + t992;
        io.re(12, t1192);
        const V t1193 = t526 + t1110;
        io.im(12, t1193);
        const V t1194 = t408 - t992;
        io.re(31, t1194);
        const V t1195 = t526 - t1110;
        io.im(31, t1195);
        // complex block of 2
        const V t1196 = t398 + t982;
        io.re(14, t1196);
        const V t1197 = t516 + t1100;
        io.im(14, t1197);
        const V t1198 = t398 - t982;
        io.re(33, t1198);
        const V t1199 = t516 - t1100;
        io.im(33, t1199);
        // complex block of 2
        const V t1200 = t449 + t1033;
        io.re(16, t1200);
        const V t1201 = t567 + t1151;
        io.im(16, t1201);
        const V t1202 = t449 - t1033;
        io.re(35, t1202);
        const V t1203 = t567 - t1151;
        io.im(35, t1203);
        // complex block of 2
        const V t1204 = t415 + t999;
        io.re(18, t1204);
        const V t1205 = t533 + t1117;
        io.im(18, t1205);
        const V t1206 = t415 - t999;
        io.re(37, t1206);
        const V t1207 = t533 - t1117;
        io.im(37, t1207);
        // complex block of 2
        const V t1208 = t465 + t1049;
        io.re(20, t1208);
        const V t1209 = t583 + t1167;
        io.im(20, t1209);
        const V t1210 = t465 - t1049;
        io.re(1, t1210);
        const V t1211 = t583 - t1167;
        io.im(1, t1211);
        // complex block of 2
        const V t1212 = t399 + t983;
        io.re(22, t1212);
        const V t1213 = t517 + t1101;
        io.im(22, t1213);
        const V t1214 = t399 - t983;
        io.re(3, t1214);
        const V t1215 = t517 - t1101;
        io.im(3, t1215);
        // complex block of 2
        const V t1216 = t448 + t1032;
        io.re(24, t1216);
        const V t1217 = t566 + t1150;
        io.im(24, t1217);
        const V t1218 = t448 - t1032;
        io.re(5, t1218);
        const V t1219 = t566 - t1150;
        io.im(5, t1219);
        // complex block of 2
        const V t1220 = t458 + t1042;
        io.re(26, t1220);
        const V t1221 = t576 + t1160;
        io.im(26, t1221);
        const V t1222 = t458 - t1042;
        io.re(7, t1222);
        const V t1223 = t576 - t1160;
        io.im(7, t1223);
        // complex block of 2
        const V t1224 = t450 + t1034;
        io.re(28, t1224);
        const V t1225 = t568 + t1152;
        io.im(28, t1225);
        const V t1226 = t450 - t1034;
        io.re(9, t1226);
        const V t1227 = t568 - t1152;
        io.im(9, t1227);
        // complex block of 2
        const V t1228 = t464 + t1048;
        io.re(30, t1228);
        const V t1229 = t582 + t1166;
        io.im(30, t1229);
        const V t1230 = t464 - t1048;
        io.re(11, t1230);
        const V t1231 = t582 - t1166;
        io.im(11, t1231);
        // complex block of 2
        const V t1232 = t406 + t990;
        io.re(32, t1232);
        const V t1233 = t524 + t1108;
        io.im(32, t1233);
        const V t1234 = t406 - t990;
        io.re(13, t1234);
        const V t1235 = t524 - t1108;
        io.im(13, t1235);
        // complex block of 2
        const V t1236 = t407 + t991;
        io.re(34, t1236);
        const V t1237 = t525 + t1109;
        io.im(34, t1237);
        const V t1238 = t407 - t991;
        io.re(15, t1238);
        const V t1239 = t525 - t1109;
        io.im(15, t1239);
        // complex block of 2
        const V t1240 = t444 + t1028;
        io.re(36, t1240);
        const V t1241 = t562 + t1146;
        io.im(36, t1241);
        const V t1242 = t444 - t1028;
        io.re(17, t1242);
        const V t1243 = t562 - t1146;
        io.im(17, t1243);
    }
};

}  // namespace zulg
