// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 43.
// Inverse DFT to 43 real points, Rader 3, 2, 7.
// 258 additions, 274 subtractions, 394 multiplications (437 with `scale`); 55 constants; 49 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<43> {
    static constexpr int steps = 969;  // with `scale`
    static constexpr double inverseRoot = 0.15249857033260467;  // 1/sqrt(43), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 3/7
        0.6234898018587335,  // c[1]: cos 2 pi 15/7
        0.2225209339563144,  // c[2]: -cos 2 pi 12/7
        0.4338837391175581,  // c[3]: sin 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 15/7
        0.9749279121818236,  // c[5]: -sin 2 pi 12/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
        0.3012377482182514,  // c[8]: P[1] of 43
        0.08222826754004824,  // c[9]: Q[1] of 43
        0.3115158140914036,  // c[10]: Q[2] of 43
        0.02153059463206762,  // c[11]: P[2] of 43
        0.20124858610393936,  // c[12]: P[3] of 43
        0.23875651933592446,  // c[13]: -Q[3] of 43
        0.2103692595529628,  // c[14]: Q[4] of 43
        0.23076057628931884,  // c[15]: P[4] of 43
        0.26511698856704335,  // c[16]: -P[5] of 43
        0.16498076041582113,  // c[17]: Q[5] of 43
        0.19319176405051375,  // c[18]: -Q[6] of 43
        0.24532144471548137,  // c[19]: P[6] of 43
        0.3083663744032671,  // c[20]: Q[8] of 43
        0.04915127741599876,  // c[21]: P[8] of 43
        0.29410997341765915,  // c[22]: -P[9] of 43
        0.10490468278634746,  // c[23]: Q[9] of 43
        0.3100587997761174,  // c[24]: Q[10] of 43
        0.03700283253527918,  // c[25]: P[10] of 43
        0.2698146808366376,  // c[26]: -P[11] of 43
        0.15718049159887415,  // c[27]: Q[11] of 43
        0.04712732753509521,  // c[28]: Q[12] of 43
        0.30868217300913287,  // c[29]: P[12] of 43
        0.049839531053216354,  // c[30]: P[13] of 43
        0.30825588409410104,  // c[31]: -Q[13] of 43
        0.15726931179327497,  // c[32]: P[15] of 43
        0.26976291906470395,  // c[33]: Q[15] of 43
        0.07016357494006686,  // c[34]: -Q[16] of 43
        0.3042741226030731,  // c[35]: -P[16] of 43
        0.06938393070305333,  // c[36]: -P[17] of 43
        0.3044528520057486,  // c[37]: -Q[17] of 43
        0.25047759866823976,  // c[38]: -Q[18] of 43
        0.18645814945888683,  // c[39]: P[18] of 43
        0.29230673527015266,  // c[40]: P[19] of 43
        0.10982914663214519,  // c[41]: Q[19] of 43
        0.31214576185951465,  // c[42]: -Q[20] of 43
        0.008407870561774193,  // c[43]: P[20] of 43
        0.023809523809523808,  // c[44]: 1/42
        0.31109878185126716,  // c[45]: -P[7] of 43
        0.026892691663313772,  // c[46]: -Q[7] of 43
        0.21107840313178253,  // c[47]: Q[14] of 43
        0.2301120958697675,  // c[48]: P[14] of 43
        0.15612948867385715,  // c[49]: -beta of 43
        0.18279925930237648,  // c[50]: sin 2 pi 1/3 times Q[14] of 43
        0.19928292074129883,  // c[51]: sin 2 pi 1/3 times P[14] of 43
        0.023289754156571717,  // c[52]: sin 2 pi 1/3 times -Q[7] of 43
        0.2694194481695906,  // c[53]: sin 2 pi 1/3 times -P[7] of 43
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
        // real block of 7, multiplier 3
        const V t42 = t30 + t14;
        const V t43 = t30 - t14;
        const V t44 = t40 + t2;
        const V t45 = t40 - t2;
        const V t46 = t6 + t20;
        const V t47 = t6 - t20;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V t50 = t49 + t0;
        const V t51 = c[0] * t42;
        const V t52 = t0 - t51;
        const V t53 = c[1] * t44;
        const V t54 = t52 + t53;
        const V t55 = c[2] * t46;
        const V t56 = t54 - t55;
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t59 - t57;
        const V t61 = t60 - t58;
        const V t62 = c[1] * t42;
        const V t63 = c[2] * t44;
        const V t64 = t62 - t63;
        const V t65 = c[0] * t46;
        const V t66 = t64 - t65;
        const V t67 = t66 + t0;
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t68 - t69;
        const V t72 = t71 - t70;
        const V t73 = c[2] * t42;
        const V t74 = t0 - t73;
        const V t75 = c[0] * t44;
        const V t76 = t74 - t75;
        const V t77 = c[1] * t46;
        const V t78 = t76 + t77;
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t79 + t80;
        const V t83 = t82 + t81;
        // real block of 7, multiplier 3
        const V t84 = t18 + t8;
        const V t85 = t18 - t8;
        const V t86 = t4 + t22;
        const V t87 = t4 - t22;
        const V t88 = t36 + t38;
        const V t89 = t36 - t38;
        const V t90 = t84 + t86;
        const V t91 = t90 + t88;
        const V t92 = t91 + t10;
        const V t93 = c[0] * t84;
        const V t94 = t10 - t93;
        const V t95 = c[1] * t86;
        const V t96 = t94 + t95;
        const V t97 = c[2] * t88;
        const V t98 = t96 - t97;
        const V t99 = c[3] * t85;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t89;
        const V t102 = t101 - t99;
        const V t103 = t102 - t100;
        const V t104 = c[1] * t84;
        const V t105 = c[2] * t86;
        const V t106 = t104 - t105;
        const V t107 = c[0] * t88;
        const V t108 = t106 - t107;
        const V t109 = t108 + t10;
        const V t110 = c[4] * t85;
        const V t111 = c[5] * t87;
        const V t112 = c[3] * t89;
        const V t113 = t110 - t111;
        const V t114 = t113 - t112;
        const V t115 = c[2] * t84;
        const V t116 = t10 - t115;
        const V t117 = c[0] * t86;
        const V t118 = t116 - t117;
        const V t119 = c[1] * t88;
        const V t120 = t118 + t119;
        const V t121 = c[5] * t85;
        const V t122 = c[3] * t87;
        const V t123 = c[4] * t89;
        const V t124 = t121 + t122;
        const V t125 = t124 + t123;
        // real block of 7, multiplier 3
        const V t126 = t32 + t24;
        const V t127 = t32 - t24;
        const V t128 = t34 + t26;
        const V t129 = t34 - t26;
        const V t130 = t28 + t16;
        const V t131 = t28 - t16;
        const V t132 = t126 + t128;
        const V t133 = t132 + t130;
        const V t134 = t133 + t12;
        const V t135 = c[0] * t126;
        const V t136 = t12 - t135;
        const V t137 = c[1] * t128;
        const V t138 = t136 + t137;
        const V t139 = c[2] * t130;
        const V t140 = t138 - t139;
        const V t141 = c[3] * t127;
        const V t142 = c[4] * t129;
        const V t143 = c[5] * t131;
        const V t144 = t143 - t141;
        const V t145 = t144 - t142;
        const V t146 = c[1] * t126;
        const V t147 = c[2] * t128;
        const V t148 = t146 - t147;
        const V t149 = c[0] * t130;
        const V t150 = t148 - t149;
        const V t151 = t150 + t12;
        const V t152 = c[4] * t127;
        const V t153 = c[5] * t129;
        const V t154 = c[3] * t131;
        const V t155 = t152 - t153;
        const V t156 = t155 - t154;
        const V t157 = c[2] * t126;
        const V t158 = t12 - t157;
        const V t159 = c[0] * t128;
        const V t160 = t158 - t159;
        const V t161 = c[1] * t130;
        const V t162 = t160 + t161;
        const V t163 = c[5] * t127;
        const V t164 = c[3] * t129;
        const V t165 = c[4] * t131;
        const V t166 = t163 + t164;
        const V t167 = t166 + t165;
        // real block of 3
        const V t168 = t92 + t134;
        const V t169 = t92 - t134;
        const V t170 = t168 + t50;
        const V t171 = c[6] * t168;
        const V t172 = t50 - t171;
        const V t173 = c[7] * t169;
        // complex block of 3
        const V t174 = t98 + t140;
        const V t175 = t103 + t145;
        const V t176 = t98 - t140;
        const V t177 = t103 - t145;
        const V t178 = t174 + t56;
        const V t179 = t175 + t61;
        const V t180 = c[6] * t174;
        const V t181 = t56 - t180;
        const V t182 = c[6] * t175;
        const V t183 = t61 - t182;
        const V t184 = c[7] * t176;
        const V t185 = c[7] * t177;
        const V t186 = t181 + t185;
        const V t187 = t183 - t184;
        const V t188 = t181 - t185;
        const V t189 = t183 + t184;
        // complex block of 3
        const V t190 = t109 + t151;
        const V t191 = t114 + t156;
        const V t192 = t109 - t151;
        const V t193 = t114 - t156;
        const V t194 = t190 + t67;
        const V t195 = t191 + t72;
        const V t196 = c[6] * t190;
        const V t197 = t67 - t196;
        const V t198 = c[6] * t191;
        const V t199 = t72 - t198;
        const V t200 = c[7] * t192;
        const V t201 = c[7] * t193;
        const V t202 = t197 + t201;
        const V t203 = t199 - t200;
        const V t204 = t197 - t201;
        const V t205 = t199 + t200;
        // complex block of 3
        const V t206 = t120 + t162;
        const V t207 = t125 + t167;
        const V t208 = t120 - t162;
        const V t209 = t167 - t125;
        const V t210 = t206 + t78;
        const V t211 = t207 + t83;
        const V t212 = c[6] * t206;
        const V t213 = t78 - t212;
        const V t214 = c[6] * t207;
        const V t215 = t214 - t83;
        const V t216 = c[7] * t208;
        const V t217 = c[7] * t209;
        const V t218 = t213 + t217;
        const V t219 = t215 - t216;
        const V t220 = t213 - t217;
        const V t221 = t215 + t216;
        // real block of 7, multiplier 3
        const V t222 = t31 - t15;
        const V t223 = t31 + t15;
        const V t224 = t41 - t3;
        const V t225 = t41 + t3;
        const V t226 = t7 + t21;
        const V t227 = t7 - t21;
        const V t228 = t222 + t224;
        const V t229 = t228 + t226;
        const V t230 = t229 + t1;
        const V t231 = c[0] * t222;
        const V t232 = t1 - t231;
        const V t233 = c[1] * t224;
        const V t234 = t232 + t233;
        const V t235 = c[2] * t226;
        const V t236 = t234 - t235;
        const V t237 = c[3] * t223;
        const V t238 = c[4] * t225;
        const V t239 = c[5] * t227;
        const V t240 = t239 - t237;
        const V t241 = t240 - t238;
        const V t242 = c[1] * t222;
        const V t243 = c[2] * t224;
        const V t244 = t242 - t243;
        const V t245 = c[0] * t226;
        const V t246 = t244 - t245;
        const V t247 = t246 + t1;
        const V t248 = c[4] * t223;
        const V t249 = c[5] * t225;
        const V t250 = c[3] * t227;
        const V t251 = t248 - t249;
        const V t252 = t251 - t250;
        const V t253 = c[2] * t222;
        const V t254 = t1 - t253;
        const V t255 = c[0] * t224;
        const V t256 = t254 - t255;
        const V t257 = c[1] * t226;
        const V t258 = t256 + t257;
        const V t259 = c[5] * t223;
        const V t260 = c[3] * t225;
        const V t261 = c[4] * t227;
        const V t262 = t259 + t260;
        const V t263 = t262 + t261;
        // real block of 7, multiplier 3
        const V t264 = t19 - t9;
        const V t265 = t19 + t9;
        const V t266 = t5 + t23;
        const V t267 = t23 - t5;
        const V t268 = t37 + t39;
        const V t269 = t39 - t37;
        const V t270 = t264 - t266;
        const V t271 = t270 - t268;
        const V t272 = t271 + t11;
        const V t273 = c[0] * t264;
        const V t274 = t11 - t273;
        const V t275 = c[1] * t266;
        const V t276 = t274 - t275;
        const V t277 = c[2] * t268;
        const V t278 = t276 + t277;
        const V t279 = c[3] * t265;
        const V t280 = c[4] * t267;
        const V t281 = c[5] * t269;
        const V t282 = t281 - t279;
        const V t283 = t282 - t280;
        const V t284 = c[1] * t264;
        const V t285 = c[2] * t266;
        const V t286 = t284 + t285;
        const V t287 = c[0] * t268;
        const V t288 = t286 + t287;
        const V t289 = t288 + t11;
        const V t290 = c[4] * t265;
        const V t291 = c[5] * t267;
        const V t292 = c[3] * t269;
        const V t293 = t290 - t291;
        const V t294 = t293 - t292;
        const V t295 = c[2] * t264;
        const V t296 = t11 - t295;
        const V t297 = c[0] * t266;
        const V t298 = t296 + t297;
        const V t299 = c[1] * t268;
        const V t300 = t298 - t299;
        const V t301 = c[5] * t265;
        const V t302 = c[3] * t267;
        const V t303 = c[4] * t269;
        const V t304 = t301 + t302;
        const V t305 = t304 + t303;
        // real block of 7, multiplier 3
        const V t306 = t33 + t25;
        const V t307 = t33 - t25;
        const V t308 = t27 - t35;
        const V t309 = t35 + t27;
        const V t310 = t29 + t17;
        const V t311 = t29 - t17;
        const V t312 = t306 + t308;
        const V t313 = t312 + t310;
        const V t314 = t313 - t13;
        const V t315 = c[0] * t306;
        const V t316 = t13 + t315;
        const V t317 = c[1] * t308;
        const V t318 = t317 - t316;
        const V t319 = c[2] * t310;
        const V t320 = t318 - t319;
        const V t321 = c[3] * t307;
        const V t322 = c[4] * t309;
        const V t323 = c[5] * t311;
        const V t324 = t322 + t323;
        const V t325 = t324 - t321;
        const V t326 = c[1] * t306;
        const V t327 = c[2] * t308;
        const V t328 = t326 - t327;
        const V t329 = c[0] * t310;
        const V t330 = t328 - t329;
        const V t331 = t330 - t13;
        const V t332 = c[4] * t307;
        const V t333 = c[5] * t309;
        const V t334 = c[3] * t311;
        const V t335 = t332 + t333;
        const V t336 = t335 - t334;
        const V t337 = c[2] * t306;
        const V t338 = t13 + t337;
        const V t339 = c[0] * t308;
        const V t340 = t338 + t339;
        const V t341 = c[1] * t310;
        const V t342 = t341 - t340;
        const V t343 = c[5] * t307;
        const V t344 = c[3] * t309;
        const V t345 = c[4] * t311;
        const V t346 = t344 - t343;
        const V t347 = t346 - t345;
        // real block of 3
        const V t348 = t272 + t314;
        const V t349 = t272 - t314;
        const V t350 = t348 + t230;
        const V t351 = c[6] * t348;
        const V t352 = t230 - t351;
        const V t353 = c[7] * t349;
        // complex block of 3
        const V t354 = t278 + t320;
        const V t355 = t283 + t325;
        const V t356 = t278 - t320;
        const V t357 = t283 - t325;
        const V t358 = t354 + t236;
        const V t359 = t355 + t241;
        const V t360 = c[6] * t354;
        const V t361 = t236 - t360;
        const V t362 = c[6] * t355;
        const V t363 = t241 - t362;
        const V t364 = c[7] * t356;
        const V t365 = c[7] * t357;
        const V t366 = t361 + t365;
        const V t367 = t363 - t364;
        const V t368 = t361 - t365;
        const V t369 = t363 + t364;
        // complex block of 3
        const V t370 = t289 + t331;
        const V t371 = t294 + t336;
        const V t372 = t289 - t331;
        const V t373 = t294 - t336;
        const V t374 = t370 + t247;
        const V t375 = t371 + t252;
        const V t376 = c[6] * t370;
        const V t377 = t247 - t376;
        const V t378 = c[6] * t371;
        const V t379 = t252 - t378;
        const V t380 = c[7] * t372;
        const V t381 = c[7] * t373;
        const V t382 = t377 + t381;
        const V t383 = t379 - t380;
        const V t384 = t377 - t381;
        const V t385 = t379 + t380;
        // complex block of 3
        const V t386 = t300 + t342;
        const V t387 = t347 - t305;
        const V t388 = t300 - t342;
        const V t389 = t305 + t347;
        const V t390 = t386 + t258;
        const V t391 = t387 - t263;
        const V t392 = c[6] * t386;
        const V t393 = t258 - t392;
        const V t394 = c[6] * t387;
        const V t395 = t263 + t394;
        const V t396 = c[7] * t388;
        const V t397 = c[7] * t389;
        const V t398 = t393 - t397;
        const V t399 = t395 + t396;
        const V t400 = t393 + t397;
        const V t401 = t396 - t395;
        // spectrum block of 43
        const V t402 = c[44] * t170;
        const V x0r = io.re(0);
        const V t403 = x0r - t402;
        const V t404 = c[8] * t367;
        const V t405 = c[9] * t366;
        const V t406 = t405 + t404;
        const V t407 = c[8] * t366;
        const V t408 = c[9] * t367;
        const V t409 = t407 - t408;
        const V t410 = c[10] * t205;
        const V t411 = c[11] * t204;
        const V t412 = t411 + t410;
        const V t413 = c[10] * t204;
        const V t414 = c[11] * t205;
        const V t415 = t413 - t414;
        const V t416 = c[12] * t391;
        const V t417 = c[13] * t390;
        const V t418 = t416 - t417;
        const V t419 = c[12] * t390;
        const V t420 = c[13] * t391;
        const V t421 = t420 + t419;
        const V t422 = c[14] * t221;
        const V t423 = c[15] * t220;
        const V t424 = t423 - t422;
        const V t425 = c[14] * t220;
        const V t426 = c[15] * t221;
        const V t427 = t426 + t425;
        const V t428 = c[16] * t383;
        const V t429 = c[17] * t382;
        const V t430 = t429 + t428;
        const V t431 = c[16] * t382;
        const V t432 = c[17] * t383;
        const V t433 = t432 - t431;
        const V t434 = c[18] * t179;
        const V t435 = c[19] * t178;
        const V t436 = t435 + t434;
        const V t437 = c[18] * t178;
        const V t438 = c[19] * t179;
        const V t439 = t438 - t437;
        const V t440 = c[45] * t353;
        const V t441 = c[46] * t352;
        const V t442 = t440 - t441;
        const V t443 = c[20] * t189;
        const V t444 = c[21] * t188;
        const V t445 = t444 + t443;
        const V t446 = c[20] * t188;
        const V t447 = c[21] * t189;
        const V t448 = t446 - t447;
        const V t449 = c[22] * t375;
        const V t450 = c[23] * t374;
        const V t451 = t450 - t449;
        const V t452 = c[22] * t374;
        const V t453 = c[23] * t375;
        const V t454 = t453 + t452;
        const V t455 = c[24] * t219;
        const V t456 = c[25] * t218;
        const V t457 = t456 + t455;
        const V t458 = c[24] * t218;
        const V t459 = c[25] * t219;
        const V t460 = t458 - t459;
        const V t461 = c[26] * t399;
        const V t462 = c[27] * t398;
        const V t463 = t462 - t461;
        const V t464 = c[26] * t398;
        const V t465 = c[27] * t399;
        const V t466 = t465 + t464;
        const V t467 = c[28] * t195;
        const V t468 = c[29] * t194;
        const V t469 = t468 - t467;
        const V t470 = c[28] * t194;
        const V t471 = c[29] * t195;
        const V t472 = t471 + t470;
        const V t473 = c[30] * t369;
        const V t474 = c[31] * t368;
        const V t475 = t474 + t473;
        const V t476 = c[30] * t368;
        const V t477 = c[31] * t369;
        const V t478 = t476 - t477;
        const V t479 = c[47] * t173;
        const V t480 = c[48] * t172;
        const V t481 = t480 + t479;
        const V t482 = c[32] * t359;
        const V t483 = c[33] * t358;
        const V t484 = t483 + t482;
        const V t485 = c[32] * t358;
        const V t486 = c[33] * t359;
        const V t487 = t485 - t486;
        const V t488 = c[34] * t203;
        const V t489 = c[35] * t202;
        const V t490 = t489 + t488;
        const V t491 = c[34] * t202;
        const V t492 = c[35] * t203;
        const V t493 = t492 - t491;
        const V t494 = c[36] * t401;
        const V t495 = c[37] * t400;
        const V t496 = t495 + t494;
        const V t497 = c[36] * t400;
        const V t498 = c[37] * t401;
        const V t499 = t498 - t497;
        const V t500 = c[38] * t211;
        const V t501 = c[39] * t210;
        const V t502 = t501 - t500;
        const V t503 = c[38] * t210;
        const V t504 = c[39] * t211;
        const V t505 = t504 + t503;
        const V t506 = c[40] * t385;
        const V t507 = c[41] * t384;
        const V t508 = t507 - t506;
        const V t509 = c[40] * t384;
        const V t510 = c[41] * t385;
        const V t511 = t510 + t509;
        const V t512 = c[42] * t187;
        const V t513 = c[43] * t186;
        const V t514 = t513 + t512;
        const V t515 = c[42] * t186;
        const V t516 = c[43] * t187;
        const V t517 = t516 - t515;
        const V t518 = c[49] * t350;
        // spectrum block of 3, multiplier 2
        const V t519 = t481 + t403;
        const V t520 = c[6] * t481;
        const V t521 = t403 - t520;
        const V t522 = c[50] * t172;
        const V t523 = c[51] * t173;
        const V t524 = t522 - t523;
        const V t525 = t521 - t524;
        const V t526 = t521 + t524;
        // complex block of 3, multiplier 2
        const V t527 = t499 + t466;
        const V t528 = t463 - t496;
        const V t529 = t499 - t466;
        const V t530 = t496 + t463;
        const V t531 = t527 + t421;
        const V t532 = t528 + t418;
        const V t533 = c[6] * t527;
        const V t534 = t421 - t533;
        const V t535 = c[6] * t528;
        const V t536 = t418 - t535;
        const V t537 = c[7] * t529;
        const V t538 = c[7] * t530;
        const V t539 = t534 - t538;
        const V t540 = t536 - t537;
        const V t541 = t534 + t538;
        const V t542 = t536 + t537;
        // complex block of 3, multiplier 2
        const V t543 = t517 - t448;
        const V t544 = t514 + t445;
        const V t545 = t517 + t448;
        const V t546 = t514 - t445;
        const V t547 = t543 + t439;
        const V t548 = t544 + t436;
        const V t549 = c[6] * t543;
        const V t550 = t439 - t549;
        const V t551 = c[6] * t544;
        const V t552 = t436 - t551;
        const V t553 = c[7] * t545;
        const V t554 = c[7] * t546;
        const V t555 = t550 + t554;
        const V t556 = t552 - t553;
        const V t557 = t550 - t554;
        const V t558 = t552 + t553;
        // complex block of 3, multiplier 2
        const V t559 = t511 + t433;
        const V t560 = t508 + t430;
        const V t561 = t433 - t511;
        const V t562 = t508 - t430;
        const V t563 = t559 + t454;
        const V t564 = t560 + t451;
        const V t565 = c[6] * t559;
        const V t566 = t565 - t454;
        const V t567 = c[6] * t560;
        const V t568 = t451 - t567;
        const V t569 = c[7] * t561;
        const V t570 = c[7] * t562;
        const V t571 = t566 + t570;
        const V t572 = t568 - t569;
        const V t573 = t566 - t570;
        const V t574 = t568 + t569;
        // complex block of 3, multiplier 2
        const V t575 = t493 + t415;
        const V t576 = t412 - t490;
        const V t577 = t415 - t493;
        const V t578 = t490 + t412;
        const V t579 = t472 - t575;
        const V t580 = t576 + t469;
        const V t581 = c[6] * t575;
        const V t582 = t581 + t472;
        const V t583 = c[6] * t576;
        const V t584 = t469 - t583;
        const V t585 = c[7] * t577;
        const V t586 = c[7] * t578;
        const V t587 = t582 - t586;
        const V t588 = t584 - t585;
        const V t589 = t582 + t586;
        const V t590 = t584 + t585;
        // complex block of 3, multiplier 2
        const V t591 = t409 - t478;
        const V t592 = t406 - t475;
        const V t593 = t478 + t409;
        const V t594 = t475 + t406;
        const V t595 = t591 + t487;
        const V t596 = t592 + t484;
        const V t597 = c[6] * t591;
        const V t598 = t487 - t597;
        const V t599 = c[6] * t592;
        const V t600 = t484 - t599;
        const V t601 = c[7] * t593;
        const V t602 = c[7] * t594;
        const V t603 = t598 - t602;
        const V t604 = t600 + t601;
        const V t605 = t598 + t602;
        const V t606 = t600 - t601;
        // complex block of 3, multiplier 2
        const V t607 = t427 - t460;
        const V t608 = t457 + t424;
        const V t609 = t460 + t427;
        const V t610 = t457 - t424;
        const V t611 = t607 - t505;
        const V t612 = t608 + t502;
        const V t613 = c[6] * t607;
        const V t614 = t505 + t613;
        const V t615 = c[6] * t608;
        const V t616 = t502 - t615;
        const V t617 = c[7] * t609;
        const V t618 = c[7] * t610;
        const V t619 = t618 - t614;
        const V t620 = t616 + t617;
        const V t621 = t614 + t618;
        const V t622 = t616 - t617;
        // spectrum block of 3, multiplier 2
        const V t623 = t442 - t518;
        const V t624 = c[6] * t442;
        const V t625 = t518 + t624;
        const V t626 = c[52] * t353;
        const V t627 = c[53] * t352;
        const V t628 = t626 + t627;
        const V t629 = t625 + t628;
        const V t630 = t628 - t625;
        // spectrum block of 2
        const V t631 = t519 + t623;
        const V t632 = t519 - t623;
        // complex block of 2
        const V t633 = t547 - t595;
        const V t634 = t548 + t596;
        const V t635 = t547 + t595;
        const V t636 = t548 - t596;
        // complex block of 2
        const V t637 = t579 + t563;
        const V t638 = t580 + t564;
        const V t639 = t579 - t563;
        const V t640 = t580 - t564;
        // complex block of 2
        const V t641 = t611 - t531;
        const V t642 = t612 + t532;
        const V t643 = t611 + t531;
        const V t644 = t612 - t532;
        // spectrum block of 7, multiplier 6
        const V t645 = t634 + t638;
        const V t646 = t645 + t642;
        const V t647 = t646 + t631;
        io.out(1, t647);
        const V t648 = c[1] * t634;
        const V t649 = c[2] * t638;
        const V t650 = t648 - t649;
        const V t651 = c[0] * t642;
        const V t652 = t650 - t651;
        const V t653 = t652 + t631;
        const V t654 = c[4] * t633;
        const V t655 = c[5] * t637;
        const V t656 = t654 + t655;
        const V t657 = c[3] * t641;
        const V t658 = t656 + t657;
        const V t659 = t653 - t658;
        io.out(41, t659);
        const V t660 = t653 + t658;
        io.out(21, t660);
        const V t661 = c[2] * t634;
        const V t662 = t631 - t661;
        const V t663 = c[0] * t638;
        const V t664 = t662 - t663;
        const V t665 = c[1] * t642;
        const V t666 = t664 + t665;
        const V t667 = c[5] * t633;
        const V t668 = c[3] * t637;
        const V t669 = t667 - t668;
        const V t670 = c[4] * t641;
        const V t671 = t669 - t670;
        const V t672 = t666 - t671;
        io.out(4, t672);
        const V t673 = t666 + t671;
        io.out(11, t673);
        const V t674 = c[0] * t634;
        const V t675 = t631 - t674;
        const V t676 = c[1] * t638;
        const V t677 = t675 + t676;
        const V t678 = c[2] * t642;
        const V t679 = t677 - t678;
        const V t680 = c[3] * t633;
        const V t681 = c[4] * t637;
        const V t682 = t680 - t681;
        const V t683 = c[5] * t641;
        const V t684 = t682 + t683;
        const V t685 = t679 - t684;
        io.out(35, t685);
        const V t686 = t679 + t684;
        io.out(16, t686);
        // spectrum block of 7, multiplier 6
        const V t687 = t636 + t640;
        const V t688 = t687 + t644;
        const V t689 = t688 + t632;
        io.out(42, t689);
        const V t690 = c[1] * t636;
        const V t691 = c[2] * t640;
        const V t692 = t690 - t691;
        const V t693 = c[0] * t644;
        const V t694 = t692 - t693;
        const V t695 = t694 + t632;
        const V t696 = c[4] * t635;
        const V t697 = c[5] * t639;
        const V t698 = t696 + t697;
        const V t699 = c[3] * t643;
        const V t700 = t698 + t699;
        const V t701 = t695 - t700;
        io.out(2, t701);
        const V t702 = t695 + t700;
        io.out(22, t702);
        const V t703 = c[2] * t636;
        const V t704 = t632 - t703;
        const V t705 = c[0] * t640;
        const V t706 = t704 - t705;
        const V t707 = c[1] * t644;
        const V t708 = t706 + t707;
        const V t709 = c[5] * t635;
        const V t710 = c[3] * t639;
        const V t711 = t709 - t710;
        const V t712 = c[4] * t643;
        const V t713 = t711 - t712;
        const V t714 = t708 - t713;
        io.out(39, t714);
        const V t715 = t708 + t713;
        io.out(32, t715);
        const V t716 = c[0] * t636;
        const V t717 = t632 - t716;
        const V t718 = c[1] * t640;
        const V t719 = t717 + t718;
        const V t720 = c[2] * t644;
        const V t721 = t719 - t720;
        const V t722 = c[3] * t635;
        const V t723 = c[4] * t639;
        const V t724 = t722 - t723;
        const V t725 = c[5] * t643;
        const V t726 = t724 + t725;
        const V t727 = t721 - t726;
        io.out(8, t727);
        const V t728 = t721 + t726;
        io.out(27, t728);
        // spectrum block of 2
        const V t729 = t526 + t630;
        const V t730 = t526 - t630;
        // complex block of 2
        const V t731 = t557 - t605;
        const V t732 = t558 + t606;
        const V t733 = t557 + t605;
        const V t734 = t558 - t606;
        // complex block of 2
        const V t735 = t589 - t573;
        const V t736 = t590 + t574;
        const V t737 = t589 + t573;
        const V t738 = t590 - t574;
        // complex block of 2
        const V t739 = t621 + t541;
        const V t740 = t622 + t542;
        const V t741 = t541 - t621;
        const V t742 = t622 - t542;
        // spectrum block of 7, multiplier 6
        const V t743 = t732 + t736;
        const V t744 = t743 + t740;
        const V t745 = t744 + t729;
        io.out(6, t745);
        const V t746 = c[1] * t732;
        const V t747 = c[2] * t736;
        const V t748 = t746 - t747;
        const V t749 = c[0] * t740;
        const V t750 = t748 - t749;
        const V t751 = t750 + t729;
        const V t752 = c[4] * t731;
        const V t753 = c[5] * t735;
        const V t754 = t752 + t753;
        const V t755 = c[3] * t739;
        const V t756 = t754 - t755;
        const V t757 = t751 - t756;
        io.out(31, t757);
        const V t758 = t751 + t756;
        io.out(40, t758);
        const V t759 = c[2] * t732;
        const V t760 = t729 - t759;
        const V t761 = c[0] * t736;
        const V t762 = t760 - t761;
        const V t763 = c[1] * t740;
        const V t764 = t762 + t763;
        const V t765 = c[5] * t731;
        const V t766 = c[3] * t735;
        const V t767 = t765 - t766;
        const V t768 = c[4] * t739;
        const V t769 = t767 + t768;
        const V t770 = t764 - t769;
        io.out(24, t770);
        const V t771 = t764 + t769;
        io.out(23, t771);
        const V t772 = c[0] * t732;
        const V t773 = t729 - t772;
        const V t774 = c[1] * t736;
        const V t775 = t773 + t774;
        const V t776 = c[2] * t740;
        const V t777 = t775 - t776;
        const V t778 = c[3] * t731;
        const V t779 = c[4] * t735;
        const V t780 = t778 - t779;
        const V t781 = c[5] * t739;
        const V t782 = t780 - t781;
        const V t783 = t777 - t782;
        io.out(38, t783);
        const V t784 = t777 + t782;
        io.out(10, t784);
        // spectrum block of 7, multiplier 6
        const V t785 = t734 + t738;
        const V t786 = t785 + t742;
        const V t787 = t786 + t730;
        io.out(37, t787);
        const V t788 = c[1] * t734;
        const V t789 = c[2] * t738;
        const V t790 = t788 - t789;
        const V t791 = c[0] * t742;
        const V t792 = t790 - t791;
        const V t793 = t792 + t730;
        const V t794 = c[4] * t733;
        const V t795 = c[5] * t737;
        const V t796 = t794 + t795;
        const V t797 = c[3] * t741;
        const V t798 = t796 + t797;
        const V t799 = t793 - t798;
        io.out(12, t799);
        const V t800 = t793 + t798;
        io.out(3, t800);
        const V t801 = c[2] * t734;
        const V t802 = t730 - t801;
        const V t803 = c[0] * t738;
        const V t804 = t802 - t803;
        const V t805 = c[1] * t742;
        const V t806 = t804 + t805;
        const V t807 = c[5] * t733;
        const V t808 = c[3] * t737;
        const V t809 = t807 - t808;
        const V t810 = c[4] * t741;
        const V t811 = t809 - t810;
        const V t812 = t806 - t811;
        io.out(19, t812);
        const V t813 = t806 + t811;
        io.out(20, t813);
        const V t814 = c[0] * t734;
        const V t815 = t730 - t814;
        const V t816 = c[1] * t738;
        const V t817 = t815 + t816;
        const V t818 = c[2] * t742;
        const V t819 = t817 - t818;
        const V t820 = c[3] * t733;
        const V t821 = c[4] * t737;
        const V t822 = t820 - t821;
        const V t823 = c[5] * t741;
        const V t824 = t822 + t823;
        const V t825 = t819 - t824;
        io.out(5, t825);
        const V t826 = t819 + t824;
        io.out(33, t826);
        // spectrum block of 2
        const V t827 = t525 - t629;
        const V t828 = t525 + t629;
        // complex block of 2
        const V t829 = t555 - t603;
        const V t830 = t556 + t604;
        const V t831 = t555 + t603;
        const V t832 = t556 - t604;
        // complex block of 2
        const V t833 = t587 - t571;
        const V t834 = t588 + t572;
        const V t835 = t587 + t571;
        const V t836 = t588 - t572;
        // complex block of 2
        const V t837 = t619 - t539;
        const V t838 = t620 + t540;
        const V t839 = t619 + t539;
        const V t840 = t620 - t540;
        // spectrum block of 7, multiplier 6
        const V t841 = t830 + t834;
        const V t842 = t841 + t838;
        const V t843 = t842 + t827;
        io.out(36, t843);
        const V t844 = c[1] * t830;
        const V t845 = c[2] * t834;
        const V t846 = t844 - t845;
        const V t847 = c[0] * t838;
        const V t848 = t846 - t847;
        const V t849 = t848 + t827;
        const V t850 = c[4] * t829;
        const V t851 = c[5] * t833;
        const V t852 = t850 + t851;
        const V t853 = c[3] * t837;
        const V t854 = t852 + t853;
        const V t855 = t849 - t854;
        io.out(14, t855);
        const V t856 = t849 + t854;
        io.out(25, t856);
        const V t857 = c[2] * t830;
        const V t858 = t827 - t857;
        const V t859 = c[0] * t834;
        const V t860 = t858 - t859;
        const V t861 = c[1] * t838;
        const V t862 = t860 + t861;
        const V t863 = c[5] * t829;
        const V t864 = c[3] * t833;
        const V t865 = t863 - t864;
        const V t866 = c[4] * t837;
        const V t867 = t865 - t866;
        const V t868 = t862 - t867;
        io.out(15, t868);
        const V t869 = t862 + t867;
        io.out(9, t869);
        const V t870 = c[0] * t830;
        const V t871 = t827 - t870;
        const V t872 = c[1] * t834;
        const V t873 = t871 + t872;
        const V t874 = c[2] * t838;
        const V t875 = t873 - t874;
        const V t876 = c[3] * t829;
        const V t877 = c[4] * t833;
        const V t878 = t876 - t877;
        const V t879 = c[5] * t837;
        const V t880 = t878 + t879;
        const V t881 = t875 - t880;
        io.out(13, t881);
        const V t882 = t875 + t880;
        io.out(17, t882);
        // spectrum block of 7, multiplier 6
        const V t883 = t832 + t836;
        const V t884 = t883 + t840;
        const V t885 = t884 + t828;
        io.out(7, t885);
        const V t886 = c[1] * t832;
        const V t887 = c[2] * t836;
        const V t888 = t886 - t887;
        const V t889 = c[0] * t840;
        const V t890 = t888 - t889;
        const V t891 = t890 + t828;
        const V t892 = c[4] * t831;
        const V t893 = c[5] * t835;
        const V t894 = t892 + t893;
        const V t895 = c[3] * t839;
        const V t896 = t894 + t895;
        const V t897 = t891 - t896;
        io.out(29, t897);
        const V t898 = t891 + t896;
        io.out(18, t898);
        const V t899 = c[2] * t832;
        const V t900 = t828 - t899;
        const V t901 = c[0] * t836;
        const V t902 = t900 - t901;
        const V t903 = c[1] * t840;
        const V t904 = t902 + t903;
        const V t905 = c[5] * t831;
        const V t906 = c[3] * t835;
        const V t907 = t905 - t906;
        const V t908 = c[4] * t839;
        const V t909 = t907 - t908;
        const V t910 = t904 - t909;
        io.out(28, t910);
        const V t911 = t904 + t909;
        io.out(34, t911);
        const V t912 = c[0] * t832;
        const V t913 = t828 - t912;
        const V t914 = c[1] * t836;
        const V t915 = t913 + t914;
        const V t916 = c[2] * t840;
        const V t917 = t915 - t916;
        const V t918 = c[3] * t831;
        const V t919 = c[4] * t835;
        const V t920 = t918 - t919;
        const V t921 = c[5] * t839;
        const V t922 = t920 + t921;
        const V t923 = t917 - t922;
        io.out(30, t923);
        const V t924 = t917 + t922;
        io.out(26, t924);
        // spectrum block of 43
        const V t925 = x0r + t170;
        io.out(0, t925);
    }
};

}  // namespace zulg
