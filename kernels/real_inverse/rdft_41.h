// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 41.
// Inverse DFT to 41 real points, Rader 5, 8.
// 227 additions, 217 subtractions, 282 multiplications (323 with `scale`); 50 constants; 50 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<41> {
    static constexpr int steps = 767;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 4/5
        0.8090169943749475,  // c[1]: -cos 2 pi 12/5
        0.9510565162951535,  // c[2]: -sin 2 pi 4/5
        0.5877852522924731,  // c[3]: sin 2 pi 12/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
        0.15643446504023087,  // c[5]: sin 2 pi 1/40
        0.9876883405951378,  // c[6]: cos 2 pi 1/40
        0.4539904997395468,  // c[7]: sin 2 pi 3/40
        0.8910065241883679,  // c[8]: cos 2 pi 3/40
        0.2620989421184033,  // c[9]: P[1] of 41
        0.1838590344269595,  // c[10]: -Q[1] of 41
        0.11219636857220389,  // c[11]: Q[2] of 41
        0.29985325557547343,  // c[12]: P[2] of 41
        0.08656031809698493,  // c[13]: P[3] of 41
        0.30823256046522535,  // c[14]: -Q[3] of 41
        0.04161199958857812,  // c[15]: Q[4] of 41
        0.3174404534558256,  // c[16]: P[4] of 41
        0.12834895928380738,  // c[17]: P[5] of 41
        0.2933028207344136,  // c[18]: -Q[5] of 41
        0.017504129545828598,  // c[19]: -Q[6] of 41
        0.31967734584865853,  // c[20]: P[6] of 41
        0.026176684051836208,  // c[21]: P[7] of 41
        0.31908428543576123,  // c[22]: Q[7] of 41
        0.3074744781243565,  // c[23]: Q[8] of 41
        0.08921572340206974,  // c[24]: P[8] of 41
        0.3155360928303509,  // c[25]: P[9] of 41
        0.05419385685994486,  // c[26]: Q[9] of 41
        0.30210846807720454,  // c[27]: -Q[10] of 41
        0.10597392847320843,  // c[28]: -P[10] of 41
        0.3116869402744416,  // c[29]: -P[11] of 41
        0.0731522471449556,  // c[30]: Q[11] of 41
        0.17046672279564715,  // c[31]: -Q[12] of 41
        0.2710001778953512,  // c[32]: -P[12] of 41
        0.16968041280638677,  // c[33]: P[13] of 41
        0.27149319974882274,  // c[34]: -Q[13] of 41
        0.30566398933844086,  // c[35]: Q[14] of 41
        0.09523405704741086,  // c[36]: P[14] of 41
        0.3192532441835867,  // c[37]: -P[15] of 41
        0.024028443109264917,  // c[38]: -Q[15] of 41
        0.03151160488130023,  // c[39]: Q[16] of 41
        0.3186016615741431,  // c[40]: P[16] of 41
        0.2399755958777195,  // c[41]: -P[17] of 41
        0.21192383863816136,  // c[42]: Q[17] of 41
        0.24179459418352547,  // c[43]: -Q[18] of 41
        0.20984607269049432,  // c[44]: -P[18] of 41
        0.17218367347358104,  // c[45]: P[19] of 41
        0.26991254618698857,  // c[46]: Q[19] of 41
        0.025,  // c[47]: 1/40
        0.16007810593582122,  // c[48]: beta of 41
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
        // real block of 5, multiplier 4
        const V t40 = t30 + t34;
        const V t41 = t30 - t34;
        const V t42 = t6 + t18;
        const V t43 = t6 - t18;
        const V t44 = t40 + t42;
        const V t45 = t44 + t0;
        const V t46 = c[0] * t40;
        const V t47 = c[1] * t42;
        const V t48 = t46 - t47;
        const V t49 = t48 + t0;
        const V t50 = c[2] * t41;
        const V t51 = c[3] * t43;
        const V t52 = t50 - t51;
        const V t53 = c[1] * t40;
        const V t54 = t0 - t53;
        const V t55 = c[0] * t42;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t41;
        const V t58 = c[2] * t43;
        const V t59 = t57 + t58;
        // real block of 5, multiplier 4
        const V t60 = t36 + t10;
        const V t61 = t36 - t10;
        const V t62 = t28 + t32;
        const V t63 = t28 - t32;
        const V t64 = t60 + t62;
        const V t65 = t64 + t26;
        const V t66 = c[0] * t60;
        const V t67 = c[1] * t62;
        const V t68 = t66 - t67;
        const V t69 = t68 + t26;
        const V t70 = c[2] * t61;
        const V t71 = c[3] * t63;
        const V t72 = t70 - t71;
        const V t73 = c[1] * t60;
        const V t74 = t26 - t73;
        const V t75 = c[0] * t62;
        const V t76 = t74 + t75;
        const V t77 = c[3] * t61;
        const V t78 = c[2] * t63;
        const V t79 = t77 + t78;
        // real block of 5, multiplier 4
        const V t80 = t38 + t2;
        const V t81 = t38 - t2;
        const V t82 = t8 + t14;
        const V t83 = t8 - t14;
        const V t84 = t80 + t82;
        const V t85 = t84 + t16;
        const V t86 = c[0] * t80;
        const V t87 = c[1] * t82;
        const V t88 = t86 - t87;
        const V t89 = t88 + t16;
        const V t90 = c[2] * t81;
        const V t91 = c[3] * t83;
        const V t92 = t90 - t91;
        const V t93 = c[1] * t80;
        const V t94 = t16 - t93;
        const V t95 = c[0] * t82;
        const V t96 = t94 + t95;
        const V t97 = c[3] * t81;
        const V t98 = c[2] * t83;
        const V t99 = t97 + t98;
        // real block of 5, multiplier 4
        const V t100 = t12 + t24;
        const V t101 = t12 - t24;
        const V t102 = t22 + t20;
        const V t103 = t22 - t20;
        const V t104 = t100 + t102;
        const V t105 = t104 + t4;
        const V t106 = c[0] * t100;
        const V t107 = c[1] * t102;
        const V t108 = t106 - t107;
        const V t109 = t108 + t4;
        const V t110 = c[2] * t101;
        const V t111 = c[3] * t103;
        const V t112 = t110 - t111;
        const V t113 = c[1] * t100;
        const V t114 = t4 - t113;
        const V t115 = c[0] * t102;
        const V t116 = t114 + t115;
        const V t117 = c[3] * t101;
        const V t118 = c[2] * t103;
        const V t119 = t117 + t118;
        // real block of 2
        const V t120 = t45 + t85;
        const V t121 = t45 - t85;
        // real block of 2
        const V t122 = t65 + t105;
        const V t123 = t65 - t105;
        // real block of 2
        const V t124 = t120 + t122;
        const V t125 = t120 - t122;
        // complex block of 2
        const V t126 = t49 + t89;
        const V t127 = t52 + t92;
        const V t128 = t49 - t89;
        const V t129 = t52 - t92;
        // complex block of 2
        const V t130 = t69 + t109;
        const V t131 = t72 + t112;
        const V t132 = t69 - t109;
        const V t133 = t72 - t112;
        // complex block of 2
        const V t134 = t126 + t130;
        const V t135 = t127 + t131;
        const V t136 = t126 - t130;
        const V t137 = t127 - t131;
        // complex block of 2
        const V t138 = t128 + t133;
        const V t139 = t129 - t132;
        const V t140 = t128 - t133;
        const V t141 = t129 + t132;
        // complex block of 2
        const V t142 = t56 + t96;
        const V t143 = t59 + t99;
        const V t144 = t56 - t96;
        const V t145 = t59 - t99;
        // complex block of 2
        const V t146 = t76 + t116;
        const V t147 = t79 + t119;
        const V t148 = t76 - t116;
        const V t149 = t79 - t119;
        // complex block of 2
        const V t150 = t142 + t146;
        const V t151 = t143 + t147;
        const V t152 = t142 - t146;
        const V t153 = t143 - t147;
        // complex block of 2
        const V t154 = t144 + t149;
        const V t155 = t145 - t148;
        const V t156 = t144 - t149;
        const V t157 = t145 + t148;
        // real block of 5
        const V t158 = t31 + t35;
        const V t159 = t31 - t35;
        const V t160 = t19 - t7;
        const V t161 = t7 + t19;
        const V t162 = t158 + t160;
        const V t163 = t162 + t1;
        const V t164 = c[0] * t158;
        const V t165 = c[1] * t160;
        const V t166 = t164 - t165;
        const V t167 = t166 + t1;
        const V t168 = c[2] * t159;
        const V t169 = c[3] * t161;
        const V t170 = t168 + t169;
        const V t171 = c[1] * t158;
        const V t172 = t1 - t171;
        const V t173 = c[0] * t160;
        const V t174 = t172 + t173;
        const V t175 = c[3] * t159;
        const V t176 = c[2] * t161;
        const V t177 = t176 - t175;
        // real block of 5
        const V t178 = t27 - t29;
        const V t179 = t27 + t29;
        const V t180 = t33 + t37;
        const V t181 = t33 - t37;
        const V t182 = t178 + t180;
        const V t183 = t182 + t11;
        const V t184 = c[0] * t178;
        const V t185 = c[1] * t180;
        const V t186 = t184 - t185;
        const V t187 = t186 + t11;
        const V t188 = c[2] * t179;
        const V t189 = c[3] * t181;
        const V t190 = t189 - t188;
        const V t191 = c[1] * t178;
        const V t192 = t11 - t191;
        const V t193 = c[0] * t180;
        const V t194 = t192 + t193;
        const V t195 = c[3] * t179;
        const V t196 = c[2] * t181;
        const V t197 = t195 + t196;
        // real block of 5
        const V t198 = t3 - t15;
        const V t199 = t3 + t15;
        const V t200 = t39 - t17;
        const V t201 = t39 + t17;
        const V t202 = t198 + t200;
        const V t203 = t202 - t9;
        const V t204 = c[0] * t198;
        const V t205 = c[1] * t200;
        const V t206 = t204 - t205;
        const V t207 = t206 - t9;
        const V t208 = c[2] * t199;
        const V t209 = c[3] * t201;
        const V t210 = t209 - t208;
        const V t211 = c[1] * t198;
        const V t212 = t9 + t211;
        const V t213 = c[0] * t200;
        const V t214 = t213 - t212;
        const V t215 = c[3] * t199;
        const V t216 = c[2] * t201;
        const V t217 = t215 + t216;
        // real block of 5
        const V t218 = t23 - t13;
        const V t219 = t23 + t13;
        const V t220 = t5 + t25;
        const V t221 = t25 - t5;
        const V t222 = t218 - t220;
        const V t223 = t222 + t21;
        const V t224 = c[0] * t218;
        const V t225 = c[1] * t220;
        const V t226 = t224 + t225;
        const V t227 = t226 + t21;
        const V t228 = c[2] * t219;
        const V t229 = c[3] * t221;
        const V t230 = t229 - t228;
        const V t231 = c[1] * t218;
        const V t232 = t21 - t231;
        const V t233 = c[0] * t220;
        const V t234 = t232 - t233;
        const V t235 = c[3] * t219;
        const V t236 = c[2] * t221;
        const V t237 = t235 + t236;
        // skew block of 20
        const V t238 = c[5] * t197;
        const V t239 = c[6] * t194;
        const V t240 = t239 + t238;
        const V t241 = c[5] * t194;
        const V t242 = c[6] * t197;
        const V t243 = t242 - t241;
        const V t244 = c[0] * t217;
        const V t245 = c[2] * t214;
        const V t246 = t245 + t244;
        const V t247 = c[0] * t214;
        const V t248 = c[2] * t217;
        const V t249 = t248 - t247;
        const V t250 = c[7] * t237;
        const V t251 = c[8] * t234;
        const V t252 = t251 + t250;
        const V t253 = c[7] * t234;
        const V t254 = c[8] * t237;
        const V t255 = t254 - t253;
        // complex block of 2
        const V t256 = t174 + t246;
        const V t257 = t249 - t177;
        const V t258 = t174 - t246;
        const V t259 = t177 + t249;
        // complex block of 2
        const V t260 = t240 + t252;
        const V t261 = t243 + t255;
        const V t262 = t240 - t252;
        const V t263 = t243 - t255;
        // complex block of 2
        const V t264 = t256 + t260;
        const V t265 = t257 + t261;
        const V t266 = t256 - t260;
        const V t267 = t257 - t261;
        // complex block of 2
        const V t268 = t258 + t263;
        const V t269 = t259 + t262;
        const V t270 = t258 - t263;
        const V t271 = t262 - t259;
        // skew block of 20
        const V t272 = c[7] * t190;
        const V t273 = c[8] * t187;
        const V t274 = t273 - t272;
        const V t275 = c[7] * t187;
        const V t276 = c[8] * t190;
        const V t277 = t276 + t275;
        const V t278 = c[1] * t210;
        const V t279 = c[3] * t207;
        const V t280 = t279 - t278;
        const V t281 = c[1] * t207;
        const V t282 = c[3] * t210;
        const V t283 = t282 + t281;
        const V t284 = c[6] * t230;
        const V t285 = c[5] * t227;
        const V t286 = t285 - t284;
        const V t287 = c[6] * t227;
        const V t288 = c[5] * t230;
        const V t289 = t288 + t287;
        // complex block of 2
        const V t290 = t167 + t280;
        const V t291 = t170 - t283;
        const V t292 = t167 - t280;
        const V t293 = t170 + t283;
        // complex block of 2
        const V t294 = t274 + t286;
        const V t295 = t277 + t289;
        const V t296 = t274 - t286;
        const V t297 = t289 - t277;
        // complex block of 2
        const V t298 = t290 + t294;
        const V t299 = t291 - t295;
        const V t300 = t290 - t294;
        const V t301 = t291 + t295;
        // complex block of 2
        const V t302 = t292 + t297;
        const V t303 = t293 - t296;
        const V t304 = t292 - t297;
        const V t305 = t293 + t296;
        // skew block of 4
        const V t306 = t183 - t223;
        const V t307 = c[4] * t306;
        const V t308 = t183 + t223;
        const V t309 = c[4] * t308;
        const V t310 = t309 - t203;
        const V t311 = t163 + t307;
        const V t312 = t203 + t309;
        const V t313 = t163 - t307;
        // spectrum block of 41
        const V t314 = c[47] * t124;
        const V x0r = io.re(0);
        const V t315 = x0r - t314;
        const V t316 = c[9] * t265;
        const V t317 = c[10] * t264;
        const V t318 = t317 + t316;
        const V t319 = c[9] * t264;
        const V t320 = c[10] * t265;
        const V t321 = t319 - t320;
        const V t322 = c[11] * t141;
        const V t323 = c[12] * t140;
        const V t324 = t323 + t322;
        const V t325 = c[11] * t140;
        const V t326 = c[12] * t141;
        const V t327 = t325 - t326;
        const V t328 = c[13] * t299;
        const V t329 = c[14] * t298;
        const V t330 = t329 + t328;
        const V t331 = c[13] * t298;
        const V t332 = c[14] * t299;
        const V t333 = t331 - t332;
        const V t334 = c[15] * t153;
        const V t335 = c[16] * t152;
        const V t336 = t335 + t334;
        const V t337 = c[15] * t152;
        const V t338 = c[16] * t153;
        const V t339 = t337 - t338;
        const V t340 = c[17] * t312;
        const V t341 = c[18] * t311;
        const V t342 = t340 - t341;
        const V t343 = c[17] * t311;
        const V t344 = c[18] * t312;
        const V t345 = t344 + t343;
        const V t346 = c[19] * t157;
        const V t347 = c[20] * t156;
        const V t348 = t347 + t346;
        const V t349 = c[19] * t156;
        const V t350 = c[20] * t157;
        const V t351 = t350 - t349;
        const V t352 = c[21] * t305;
        const V t353 = c[22] * t304;
        const V t354 = t353 + t352;
        const V t355 = c[21] * t304;
        const V t356 = c[22] * t305;
        const V t357 = t355 - t356;
        const V t358 = c[23] * t135;
        const V t359 = c[24] * t134;
        const V t360 = t359 - t358;
        const V t361 = c[23] * t134;
        const V t362 = c[24] * t135;
        const V t363 = t362 + t361;
        const V t364 = c[25] * t271;
        const V t365 = c[26] * t270;
        const V t366 = t365 + t364;
        const V t367 = c[25] * t270;
        const V t368 = c[26] * t271;
        const V t369 = t367 - t368;
        const V t370 = c[27] * t123;
        const V t371 = c[28] * t121;
        const V t372 = t371 + t370;
        const V t373 = c[27] * t121;
        const V t374 = c[28] * t123;
        const V t375 = t374 - t373;
        const V t376 = c[29] * t269;
        const V t377 = c[30] * t268;
        const V t378 = t377 - t376;
        const V t379 = c[29] * t268;
        const V t380 = c[30] * t269;
        const V t381 = t380 + t379;
        const V t382 = c[31] * t137;
        const V t383 = c[32] * t136;
        const V t384 = t383 + t382;
        const V t385 = c[31] * t136;
        const V t386 = c[32] * t137;
        const V t387 = t386 - t385;
        const V t388 = c[33] * t303;
        const V t389 = c[34] * t302;
        const V t390 = t389 + t388;
        const V t391 = c[33] * t302;
        const V t392 = c[34] * t303;
        const V t393 = t391 - t392;
        const V t394 = c[35] * t155;
        const V t395 = c[36] * t154;
        const V t396 = t395 + t394;
        const V t397 = c[35] * t154;
        const V t398 = c[36] * t155;
        const V t399 = t397 - t398;
        const V t400 = c[37] * t310;
        const V t401 = c[38] * t313;
        const V t402 = t401 + t400;
        const V t403 = c[37] * t313;
        const V t404 = c[38] * t310;
        const V t405 = t404 - t403;
        const V t406 = c[39] * t151;
        const V t407 = c[40] * t150;
        const V t408 = t407 - t406;
        const V t409 = c[39] * t150;
        const V t410 = c[40] * t151;
        const V t411 = t410 + t409;
        const V t412 = c[41] * t301;
        const V t413 = c[42] * t300;
        const V t414 = t413 - t412;
        const V t415 = c[41] * t300;
        const V t416 = c[42] * t301;
        const V t417 = t416 + t415;
        const V t418 = c[43] * t139;
        const V t419 = c[44] * t138;
        const V t420 = t418 - t419;
        const V t421 = c[43] * t138;
        const V t422 = c[44] * t139;
        const V t423 = t422 + t421;
        const V t424 = c[45] * t267;
        const V t425 = c[46] * t266;
        const V t426 = t425 + t424;
        const V t427 = c[45] * t266;
        const V t428 = c[46] * t267;
        const V t429 = t427 - t428;
        const V t430 = c[48] * t125;
        // spectrum block of 5, multiplier 3
        const V t431 = t360 + t408;
        const V t432 = t431 + t315;
        const V t433 = c[0] * t360;
        const V t434 = c[1] * t408;
        const V t435 = t433 - t434;
        const V t436 = t435 + t315;
        const V t437 = c[2] * t363;
        const V t438 = c[3] * t411;
        const V t439 = t437 + t438;
        const V t440 = t436 - t439;
        const V t441 = t436 + t439;
        const V t442 = c[1] * t360;
        const V t443 = t315 - t442;
        const V t444 = c[0] * t408;
        const V t445 = t443 + t444;
        const V t446 = c[3] * t363;
        const V t447 = c[2] * t411;
        const V t448 = t446 - t447;
        const V t449 = t445 - t448;
        const V t450 = t445 + t448;
        // complex block of 5, multiplier 3
        const V t451 = t393 - t333;
        const V t452 = t390 + t330;
        const V t453 = t393 + t333;
        const V t454 = t330 - t390;
        const V t455 = t381 - t429;
        const V t456 = t378 + t426;
        const V t457 = t381 + t429;
        const V t458 = t378 - t426;
        const V t459 = t451 + t455;
        const V t460 = t456 - t452;
        const V t461 = t459 + t345;
        const V t462 = t460 + t342;
        const V t463 = c[0] * t451;
        const V t464 = c[1] * t455;
        const V t465 = t463 - t464;
        const V t466 = t465 + t345;
        const V t467 = c[0] * t452;
        const V t468 = t342 - t467;
        const V t469 = c[1] * t456;
        const V t470 = t468 - t469;
        const V t471 = c[2] * t453;
        const V t472 = c[3] * t457;
        const V t473 = t471 - t472;
        const V t474 = c[2] * t454;
        const V t475 = c[3] * t458;
        const V t476 = t474 - t475;
        const V t477 = t466 + t476;
        const V t478 = t470 - t473;
        const V t479 = t466 - t476;
        const V t480 = t470 + t473;
        const V t481 = c[1] * t451;
        const V t482 = t345 - t481;
        const V t483 = c[0] * t455;
        const V t484 = t482 + t483;
        const V t485 = c[1] * t452;
        const V t486 = c[0] * t456;
        const V t487 = t485 + t486;
        const V t488 = t487 + t342;
        const V t489 = c[3] * t453;
        const V t490 = c[2] * t457;
        const V t491 = t489 + t490;
        const V t492 = c[3] * t454;
        const V t493 = c[2] * t458;
        const V t494 = t492 + t493;
        const V t495 = t484 + t494;
        const V t496 = t488 - t491;
        const V t497 = t484 - t494;
        const V t498 = t488 + t491;
        // complex block of 5, multiplier 3
        const V t499 = t327 - t423;
        const V t500 = t420 + t324;
        const V t501 = t423 + t327;
        const V t502 = t420 - t324;
        const V t503 = t351 + t399;
        const V t504 = t348 + t396;
        const V t505 = t399 - t351;
        const V t506 = t348 - t396;
        const V t507 = t499 - t503;
        const V t508 = t500 + t504;
        const V t509 = t507 + t375;
        const V t510 = t508 - t372;
        const V t511 = c[0] * t499;
        const V t512 = c[1] * t503;
        const V t513 = t511 + t512;
        const V t514 = t513 + t375;
        const V t515 = c[0] * t500;
        const V t516 = c[1] * t504;
        const V t517 = t515 - t516;
        const V t518 = t517 - t372;
        const V t519 = c[2] * t501;
        const V t520 = c[3] * t505;
        const V t521 = t519 + t520;
        const V t522 = c[2] * t502;
        const V t523 = c[3] * t506;
        const V t524 = t522 - t523;
        const V t525 = t514 + t524;
        const V t526 = t518 + t521;
        const V t527 = t514 - t524;
        const V t528 = t518 - t521;
        const V t529 = c[1] * t499;
        const V t530 = t375 - t529;
        const V t531 = c[0] * t503;
        const V t532 = t530 - t531;
        const V t533 = c[1] * t500;
        const V t534 = t372 + t533;
        const V t535 = c[0] * t504;
        const V t536 = t535 - t534;
        const V t537 = c[3] * t501;
        const V t538 = c[2] * t505;
        const V t539 = t538 - t537;
        const V t540 = c[3] * t502;
        const V t541 = c[2] * t506;
        const V t542 = t540 + t541;
        const V t543 = t532 + t542;
        const V t544 = t536 - t539;
        const V t545 = t532 - t542;
        const V t546 = t536 + t539;
        // complex block of 5, multiplier 3
        const V t547 = t417 + t357;
        const V t548 = t414 + t354;
        const V t549 = t417 - t357;
        const V t550 = t414 - t354;
        const V t551 = t321 + t369;
        const V t552 = t366 - t318;
        const V t553 = t369 - t321;
        const V t554 = t318 + t366;
        const V t555 = t547 - t551;
        const V t556 = t548 + t552;
        const V t557 = t555 + t405;
        const V t558 = t556 - t402;
        const V t559 = c[0] * t547;
        const V t560 = c[1] * t551;
        const V t561 = t559 + t560;
        const V t562 = t561 + t405;
        const V t563 = c[0] * t548;
        const V t564 = c[1] * t552;
        const V t565 = t563 - t564;
        const V t566 = t565 - t402;
        const V t567 = c[2] * t549;
        const V t568 = c[3] * t553;
        const V t569 = t567 - t568;
        const V t570 = c[2] * t550;
        const V t571 = c[3] * t554;
        const V t572 = t570 + t571;
        const V t573 = t562 + t572;
        const V t574 = t566 - t569;
        const V t575 = t562 - t572;
        const V t576 = t566 + t569;
        const V t577 = c[1] * t547;
        const V t578 = t405 - t577;
        const V t579 = c[0] * t551;
        const V t580 = t578 - t579;
        const V t581 = c[1] * t548;
        const V t582 = t402 + t581;
        const V t583 = c[0] * t552;
        const V t584 = t583 - t582;
        const V t585 = c[3] * t549;
        const V t586 = c[2] * t553;
        const V t587 = t585 + t586;
        const V t588 = c[3] * t550;
        const V t589 = c[2] * t554;
        const V t590 = t588 - t589;
        const V t591 = t580 + t590;
        const V t592 = t584 - t587;
        const V t593 = t580 - t590;
        const V t594 = t584 + t587;
        // spectrum block of 5, multiplier 3
        const V t595 = t336 - t384;
        const V t596 = t595 + t430;
        const V t597 = c[0] * t384;
        const V t598 = t430 - t597;
        const V t599 = c[1] * t336;
        const V t600 = t598 - t599;
        const V t601 = c[2] * t387;
        const V t602 = c[3] * t339;
        const V t603 = t601 + t602;
        const V t604 = t600 + t603;
        const V t605 = t600 - t603;
        const V t606 = c[1] * t384;
        const V t607 = c[0] * t336;
        const V t608 = t606 + t607;
        const V t609 = t608 + t430;
        const V t610 = c[3] * t387;
        const V t611 = c[2] * t339;
        const V t612 = t611 - t610;
        const V t613 = t609 - t612;
        const V t614 = t609 + t612;
        // spectrum block of 2
        const V t615 = t432 + t596;
        const V t616 = t432 - t596;
        // spectrum block of 2
        const V t617 = t615 + t510;
        const V t618 = t615 - t510;
        // spectrum block of 2
        const V t619 = t616 - t509;
        const V t620 = t616 + t509;
        // mirrored skew block of 4, multiplier 5
        const V t621 = t558 - t462;
        const V t622 = c[4] * t621;
        const V t623 = t557 + t461;
        const V t624 = c[4] * t623;
        const V t625 = t558 + t462;
        const V t626 = t622 + t624;
        const V t627 = t461 - t557;
        const V t628 = t622 - t624;
        // spectrum block of 2
        const V t629 = t617 + t625;
        io.out(1, t629);
        const V t630 = t617 - t625;
        io.out(40, t630);
        // spectrum block of 2
        const V t631 = t619 + t626;
        io.out(38, t631);
        const V t632 = t619 - t626;
        io.out(3, t632);
        // spectrum block of 2
        const V t633 = t618 - t627;
        io.out(9, t633);
        const V t634 = t618 + t627;
        io.out(32, t634);
        // spectrum block of 2
        const V t635 = t620 - t628;
        io.out(14, t635);
        const V t636 = t620 + t628;
        io.out(27, t636);
        // spectrum block of 2
        const V t637 = t450 + t614;
        const V t638 = t450 - t614;
        // spectrum block of 2
        const V t639 = t637 + t546;
        const V t640 = t637 - t546;
        // spectrum block of 2
        const V t641 = t638 - t545;
        const V t642 = t638 + t545;
        // mirrored skew block of 4, multiplier 5
        const V t643 = t594 - t498;
        const V t644 = c[4] * t643;
        const V t645 = t593 + t497;
        const V t646 = c[4] * t645;
        const V t647 = t594 + t498;
        const V t648 = t644 + t646;
        const V t649 = t497 - t593;
        const V t650 = t644 - t646;
        // spectrum block of 2
        const V t651 = t639 + t647;
        io.out(37, t651);
        const V t652 = t639 - t647;
        io.out(4, t652);
        // spectrum block of 2
        const V t653 = t641 + t648;
        io.out(12, t653);
        const V t654 = t641 - t648;
        io.out(29, t654);
        // spectrum block of 2
        const V t655 = t640 - t649;
        io.out(5, t655);
        const V t656 = t640 + t649;
        io.out(36, t656);
        // spectrum block of 2
        const V t657 = t642 - t650;
        io.out(26, t657);
        const V t658 = t642 + t650;
        io.out(15, t658);
        // spectrum block of 2
        const V t659 = t440 + t604;
        const V t660 = t440 - t604;
        // spectrum block of 2
        const V t661 = t659 + t526;
        const V t662 = t659 - t526;
        // spectrum block of 2
        const V t663 = t660 - t525;
        const V t664 = t660 + t525;
        // mirrored skew block of 4, multiplier 5
        const V t665 = t574 - t478;
        const V t666 = c[4] * t665;
        const V t667 = t573 + t477;
        const V t668 = c[4] * t667;
        const V t669 = t574 + t478;
        const V t670 = t666 + t668;
        const V t671 = t477 - t573;
        const V t672 = t666 - t668;
        // spectrum block of 2
        const V t673 = t661 + t669;
        io.out(16, t673);
        const V t674 = t661 - t669;
        io.out(25, t674);
        // spectrum block of 2
        const V t675 = t663 + t670;
        io.out(34, t675);
        const V t676 = t663 - t670;
        io.out(7, t676);
        // spectrum block of 2
        const V t677 = t662 - t671;
        io.out(21, t677);
        const V t678 = t662 + t671;
        io.out(20, t678);
        // spectrum block of 2
        const V t679 = t664 - t672;
        io.out(19, t679);
        const V t680 = t664 + t672;
        io.out(22, t680);
        // spectrum block of 2
        const V t681 = t441 + t605;
        const V t682 = t441 - t605;
        // spectrum block of 2
        const V t683 = t681 + t528;
        const V t684 = t681 - t528;
        // spectrum block of 2
        const V t685 = t682 - t527;
        const V t686 = t682 + t527;
        // mirrored skew block of 4, multiplier 5
        const V t687 = t576 - t480;
        const V t688 = c[4] * t687;
        const V t689 = t575 + t479;
        const V t690 = c[4] * t689;
        const V t691 = t576 + t480;
        const V t692 = t688 + t690;
        const V t693 = t479 - t575;
        const V t694 = t688 - t690;
        // spectrum block of 2
        const V t695 = t683 + t691;
        io.out(18, t695);
        const V t696 = t683 - t691;
        io.out(23, t696);
        // spectrum block of 2
        const V t697 = t685 + t692;
        io.out(28, t697);
        const V t698 = t685 - t692;
        io.out(13, t698);
        // spectrum block of 2
        const V t699 = t684 - t693;
        io.out(39, t699);
        const V t700 = t684 + t693;
        io.out(2, t700);
        // spectrum block of 2
        const V t701 = t686 - t694;
        io.out(6, t701);
        const V t702 = t686 + t694;
        io.out(35, t702);
        // spectrum block of 2
        const V t703 = t449 + t613;
        const V t704 = t449 - t613;
        // spectrum block of 2
        const V t705 = t703 + t544;
        const V t706 = t703 - t544;
        // spectrum block of 2
        const V t707 = t704 - t543;
        const V t708 = t704 + t543;
        // mirrored skew block of 4, multiplier 5
        const V t709 = t592 - t496;
        const V t710 = c[4] * t709;
        const V t711 = t591 + t495;
        const V t712 = c[4] * t711;
        const V t713 = t592 + t496;
        const V t714 = t710 + t712;
        const V t715 = t495 - t591;
        const V t716 = t710 - t712;
        // spectrum block of 2
        const V t717 = t705 + t713;
        io.out(10, t717);
        const V t718 = t705 - t713;
        io.out(31, t718);
        // spectrum block of 2
        const V t719 = t707 + t714;
        io.out(11, t719);
        const V t720 = t707 - t714;
        io.out(30, t720);
        // spectrum block of 2
        const V t721 = t706 - t715;
        io.out(8, t721);
        const V t722 = t706 + t715;
        io.out(33, t722);
        // spectrum block of 2
        const V t723 = t708 - t716;
        io.out(17, t723);
        const V t724 = t708 + t716;
        io.out(24, t724);
        // spectrum block of 41
        const V t725 = x0r + t124;
        io.out(0, t725);
    }
};

}  // namespace zulg
