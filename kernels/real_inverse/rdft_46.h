// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 46.
// Inverse DFT to 46 real points, prime-factor 23, 2.
// 304 additions, 310 subtractions, 528 multiplications (574 with `scale`); 33 constants; 110 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<46> {
    static constexpr int steps = 1188;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        0.14231483827328514,  // c[0]: -cos 2 pi 3/11
        0.9594929736144974,  // c[1]: -cos 2 pi 6/11
        0.41541501300188644,  // c[2]: cos 2 pi 9/11
        0.8412535328311812,  // c[3]: cos 2 pi 1/11
        0.6548607339452851,  // c[4]: -cos 2 pi 4/11
        0.5406408174555976,  // c[5]: sin 2 pi 1/11
        0.9096319953545183,  // c[6]: -sin 2 pi 9/11
        0.28173255684142967,  // c[7]: -sin 2 pi 6/11
        0.9898214418809327,  // c[8]: sin 2 pi 3/11
        0.7557495743542583,  // c[9]: sin 2 pi 4/11
        0.4130101145562366,  // c[10]: P[2] of 23
        0.1396613400420585,  // c[11]: Q[2] of 23
        0.07284077652875139,  // c[12]: -P[4] of 23
        0.42985679697172136,  // c[13]: -Q[4] of 23
        0.2732012886111602,  // c[14]: -P[6] of 23
        0.3397700700904962,  // c[15]: -Q[6] of 23
        0.05696081894716527,  // c[16]: Q[8] of 23
        0.15475065017493012,  // c[17]: Q[9] of 23
        0.4075964682115579,  // c[18]: P[9] of 23
        0.3941449686576057,  // c[19]: Q[7] of 23
        0.1863662746045921,  // c[20]: -P[7] of 23
        0.12855275355334153,  // c[21]: -Q[5] of 23
        0.4166015292602189,  // c[22]: P[5] of 23
        0.2936565344532715,  // c[23]: -P[3] of 23
        0.4322477411542684,  // c[24]: P[8] of 23
        0.17418154463549565,  // c[25]: P[1] of 23
        0.39967916400094217,  // c[26]: -Q[1] of 23
        0.3222553093449257,  // c[27]: -Q[3] of 23
        0.1719176660785936,  // c[28]: Q[10] of 23
        0.4006581594304406,  // c[29]: P[10] of 23
        0.045454545454545456,  // c[30]: 1/22
        0.21799234196875997,  // c[31]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x19r = io.re(19);
        const V t1 = two * x19r;
        // real block of 11
        const V t2 = t0 + t1;
        const V t3 = t0 - t1;
        // doubled bins
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x9r = io.re(9);
        const V t5 = two * x9r;
        // real block of 11
        const V t6 = t4 - t5;
        // doubled bins
        const V x5r = io.re(5);
        const V t7 = two * x5r;
        const V x13r = io.re(13);
        const V t8 = two * x13r;
        // real block of 11
        const V t9 = t8 + t7;
        const V t10 = t8 - t7;
        // doubled bins
        const V x7r = io.re(7);
        const V t11 = two * x7r;
        const V x17r = io.re(17);
        const V t12 = two * x17r;
        // real block of 11
        const V t13 = t11 - t12;
        // doubled bins
        const V x21r = io.re(21);
        const V t14 = two * x21r;
        // real block of 11
        const V t15 = t4 + t5;
        const V t16 = t9 + t2;
        const V t17 = t16 + t15;
        const V t18 = c[0] * t15;
        const V t19 = c[1] * t15;
        const V t20 = c[2] * t15;
        const V t21 = c[3] * t15;
        const V t22 = c[4] * t15;
        const V t23 = t11 + t12;
        const V t24 = c[1] * t23;
        const V t25 = c[3] * t23;
        const V t26 = c[3] * t9;
        const V t27 = c[2] * t2;
        const V t28 = t26 + t27;
        const V t29 = c[5] * t10;
        const V t30 = c[6] * t3;
        const V t31 = c[7] * t13;
        const V t32 = t30 + t31;
        const V t33 = c[8] * t6;
        const V t34 = c[2] * t9;
        const V t35 = c[4] * t2;
        const V t36 = t34 - t35;
        const V t37 = c[6] * t10;
        const V t38 = c[9] * t3;
        const V t39 = c[7] * t6;
        const V t40 = t38 + t39;
        const V t41 = c[0] * t9;
        const V t42 = t14 - t41;
        const V t43 = c[1] * t2;
        const V t44 = c[8] * t10;
        const V t45 = c[7] * t3;
        const V t46 = c[6] * t6;
        const V t47 = c[9] * t13;
        const V t48 = t46 + t47;
        const V t49 = c[4] * t9;
        const V t50 = t14 - t49;
        const V t51 = c[0] * t2;
        const V t52 = c[9] * t10;
        const V t53 = c[8] * t3;
        const V t54 = t52 + t53;
        const V t55 = c[5] * t6;
        const V t56 = c[1] * t9;
        const V t57 = t14 - t56;
        const V t58 = c[3] * t2;
        const V t59 = c[7] * t10;
        const V t60 = c[8] * t13;
        // doubled bins
        const V x11r = io.re(11);
        const V t61 = two * x11r;
        const V x15r = io.re(15);
        const V t62 = two * x15r;
        // real block of 11
        const V t63 = t62 + t61;
        const V t64 = c[4] * t63;
        const V t65 = c[0] * t63;
        const V t66 = c[3] * t63;
        const V t67 = t62 - t61;
        const V t68 = c[8] * t67;
        const V t69 = c[7] * t67;
        const V t70 = c[6] * t67;
        const V t71 = t17 + t63;
        const V t72 = t71 + t23;
        const V t73 = t72 + t14;
        // spectrum block of 23, multiplier 2
        const V t74 = c[30] * t73;
        // real block of 11
        const V t75 = t28 - t18;
        const V t76 = t75 - t64;
        const V t77 = t76 - t24;
        const V t78 = t77 + t14;
        // spectrum block of 23, multiplier 2
        const V t79 = c[10] * t78;
        const V t80 = c[11] * t78;
        // real block of 11
        const V t81 = c[9] * t67;
        const V t82 = t32 - t29;
        const V t83 = t82 - t33;
        const V t84 = t83 - t81;
        // spectrum block of 23, multiplier 2
        const V t85 = c[11] * t84;
        const V t86 = c[10] * t84;
        // real block of 11
        const V t87 = t36 - t19;
        const V t88 = t87 - t65;
        const V t89 = t88 + t25;
        const V t90 = t89 + t14;
        // spectrum block of 23, multiplier 2
        const V t91 = c[12] * t90;
        const V t92 = c[13] * t90;
        // real block of 11
        const V t93 = c[5] * t13;
        const V t94 = t40 + t68;
        const V t95 = t94 - t37;
        const V t96 = t95 - t93;
        // spectrum block of 23, multiplier 2
        const V t97 = c[13] * t96;
        const V t98 = c[12] * t96;
        // real block of 11
        const V t99 = t42 - t43;
        const V t100 = t99 + t20;
        const V t101 = t100 + t66;
        const V t102 = c[4] * t23;
        const V t103 = t101 - t102;
        // spectrum block of 23, multiplier 2
        const V t104 = c[14] * t103;
        // real block of 11
        const V t105 = c[5] * t67;
        const V t106 = t48 - t44;
        const V t107 = t106 - t45;
        const V t108 = t107 - t105;
        // spectrum block of 23, multiplier 2
        const V t109 = c[15] * t108;
        const V t110 = c[14] * t108;
        // real block of 11
        const V t111 = t50 - t51;
        const V t112 = t111 + t21;
        const V t113 = c[1] * t63;
        const V t114 = c[2] * t23;
        const V t115 = t112 - t113;
        const V t116 = t115 + t114;
        const V t117 = c[6] * t13;
        const V t118 = t54 + t55;
        const V t119 = t118 + t69;
        const V t120 = t119 + t117;
        // spectrum block of 23, multiplier 2
        const V t121 = c[16] * t120;
        // real block of 11
        const V t122 = t57 + t58;
        const V t123 = t122 - t22;
        const V t124 = c[2] * t63;
        const V t125 = c[0] * t23;
        const V t126 = t123 + t124;
        const V t127 = t126 - t125;
        const V t128 = c[5] * t3;
        const V t129 = c[9] * t6;
        const V t130 = t70 + t60;
        const V t131 = t130 - t59;
        const V t132 = t131 - t128;
        const V t133 = t132 - t129;
        // doubled bins
        const V x1i = io.im(1);
        const V t134 = two * x1i;
        const V x19i = io.im(19);
        const V t135 = two * x19i;
        // real block of 11
        const V t136 = t134 - t135;
        const V t137 = t134 + t135;
        // doubled bins
        const V x3i = io.im(3);
        const V t138 = two * x3i;
        const V x9i = io.im(9);
        const V t139 = two * x9i;
        // real block of 11
        const V t140 = t138 - t139;
        // doubled bins
        const V x5i = io.im(5);
        const V t141 = two * x5i;
        const V x13i = io.im(13);
        const V t142 = two * x13i;
        // real block of 11
        const V t143 = t142 - t141;
        const V t144 = t142 + t141;
        // doubled bins
        const V x7i = io.im(7);
        const V t145 = two * x7i;
        const V x17i = io.im(17);
        const V t146 = two * x17i;
        // real block of 11
        const V t147 = t146 - t145;
        // doubled bins
        const V x21i = io.im(21);
        const V t148 = two * x21i;
        // real block of 11
        const V t149 = t138 + t139;
        const V t150 = t143 + t136;
        const V t151 = t150 + t149;
        const V t152 = c[0] * t149;
        const V t153 = c[1] * t149;
        const V t154 = c[2] * t149;
        const V t155 = c[3] * t149;
        const V t156 = c[4] * t149;
        const V t157 = t145 + t146;
        const V t158 = c[1] * t157;
        const V t159 = c[3] * t157;
        const V t160 = c[3] * t143;
        const V t161 = c[2] * t136;
        const V t162 = t160 + t161;
        const V t163 = c[5] * t144;
        const V t164 = c[6] * t137;
        const V t165 = c[7] * t147;
        const V t166 = t164 + t165;
        const V t167 = c[8] * t140;
        const V t168 = c[2] * t143;
        const V t169 = c[4] * t136;
        const V t170 = t168 - t169;
        const V t171 = c[6] * t144;
        const V t172 = c[9] * t137;
        const V t173 = c[7] * t140;
        const V t174 = t172 + t173;
        const V t175 = c[0] * t143;
        const V t176 = t148 + t175;
        const V t177 = c[1] * t136;
        const V t178 = c[8] * t144;
        const V t179 = c[7] * t137;
        const V t180 = c[6] * t140;
        const V t181 = c[9] * t147;
        const V t182 = t180 + t181;
        const V t183 = c[4] * t143;
        const V t184 = t148 + t183;
        const V t185 = c[0] * t136;
        const V t186 = c[9] * t144;
        const V t187 = c[8] * t137;
        const V t188 = t186 + t187;
        const V t189 = c[5] * t140;
        const V t190 = c[1] * t143;
        const V t191 = t148 + t190;
        const V t192 = c[3] * t136;
        const V t193 = c[7] * t144;
        const V t194 = c[8] * t147;
        // doubled bins
        const V x11i = io.im(11);
        const V t195 = two * x11i;
        const V x15i = io.im(15);
        const V t196 = two * x15i;
        // real block of 11
        const V t197 = t196 + t195;
        const V t198 = c[4] * t197;
        const V t199 = c[0] * t197;
        const V t200 = c[3] * t197;
        const V t201 = t195 - t196;
        const V t202 = c[8] * t201;
        const V t203 = c[7] * t201;
        const V t204 = c[6] * t201;
        const V t205 = t151 - t197;
        const V t206 = t205 - t157;
        const V t207 = t206 - t148;
        // spectrum block of 23, multiplier 2
        const V t208 = c[31] * t207;
        // real block of 11
        const V t209 = t162 - t152;
        const V t210 = t209 + t198;
        const V t211 = t210 + t158;
        const V t212 = t211 - t148;
        // spectrum block of 23, multiplier 2
        const V t213 = c[17] * t212;
        const V t214 = c[18] * t212;
        // real block of 11
        const V t215 = c[9] * t201;
        const V t216 = t166 - t163;
        const V t217 = t216 - t167;
        const V t218 = t217 - t215;
        // spectrum block of 23, multiplier 2
        const V t219 = c[18] * t218;
        const V t220 = c[17] * t218;
        // real block of 11
        const V t221 = t170 - t153;
        const V t222 = t221 + t199;
        const V t223 = t222 - t159;
        const V t224 = t223 - t148;
        // spectrum block of 23, multiplier 2
        const V t225 = c[19] * t224;
        const V t226 = c[20] * t224;
        // real block of 11
        const V t227 = c[5] * t147;
        const V t228 = t174 + t202;
        const V t229 = t228 - t171;
        const V t230 = t229 - t227;
        // spectrum block of 23, multiplier 2
        const V t231 = c[20] * t230;
        const V t232 = c[19] * t230;
        // real block of 11
        const V t233 = t176 + t177;
        const V t234 = t154 - t233;
        const V t235 = t234 - t200;
        const V t236 = c[4] * t157;
        const V t237 = t235 + t236;
        // spectrum block of 23, multiplier 2
        const V t238 = c[21] * t237;
        // real block of 11
        const V t239 = c[5] * t201;
        const V t240 = t182 - t178;
        const V t241 = t240 - t179;
        const V t242 = t241 - t239;
        // spectrum block of 23, multiplier 2
        const V t243 = c[22] * t242;
        const V t244 = c[21] * t242;
        // real block of 11
        const V t245 = t184 + t185;
        const V t246 = t155 - t245;
        const V t247 = c[1] * t197;
        const V t248 = c[2] * t157;
        const V t249 = t246 + t247;
        const V t250 = t249 - t248;
        const V t251 = c[6] * t147;
        const V t252 = t188 + t189;
        const V t253 = t252 + t203;
        const V t254 = t253 + t251;
        // spectrum block of 23, multiplier 2
        const V t255 = c[23] * t254;
        // real block of 11
        const V t256 = t192 - t191;
        const V t257 = t256 - t156;
        const V t258 = c[2] * t197;
        const V t259 = c[0] * t157;
        const V t260 = t257 - t258;
        const V t261 = t260 + t259;
        const V t262 = c[5] * t137;
        const V t263 = c[9] * t140;
        const V t264 = t204 + t194;
        const V t265 = t264 - t193;
        const V t266 = t265 - t262;
        const V t267 = t266 - t263;
        // doubled bins
        const V x2r = io.re(2);
        const V t268 = two * x2r;
        const V x4r = io.re(4);
        const V t269 = two * x4r;
        const V x22r = io.re(22);
        const V t270 = two * x22r;
        // real block of 11
        const V t271 = t270 + t269;
        const V t272 = t270 - t269;
        // doubled bins
        const V x6r = io.re(6);
        const V t273 = two * x6r;
        const V x16r = io.re(16);
        const V t274 = two * x16r;
        // real block of 11
        const V t275 = t274 - t273;
        // doubled bins
        const V x10r = io.re(10);
        const V t276 = two * x10r;
        const V x18r = io.re(18);
        const V t277 = two * x18r;
        // real block of 11
        const V t278 = t276 + t277;
        const V t279 = t276 - t277;
        // doubled bins
        const V x14r = io.re(14);
        const V t280 = two * x14r;
        const V x20r = io.re(20);
        const V t281 = two * x20r;
        // real block of 11
        const V t282 = t281 - t280;
        const V t283 = t281 + t280;
        const V t284 = t278 + t271;
        const V t285 = t284 + t283;
        const V t286 = c[0] * t283;
        const V t287 = c[1] * t283;
        const V t288 = c[2] * t283;
        const V t289 = c[3] * t283;
        const V t290 = c[4] * t283;
        const V t291 = t274 + t273;
        const V t292 = c[1] * t291;
        const V t293 = c[3] * t291;
        const V t294 = c[3] * t278;
        const V t295 = c[2] * t271;
        const V t296 = t294 + t295;
        const V t297 = c[5] * t279;
        const V t298 = c[6] * t272;
        const V t299 = c[7] * t275;
        const V t300 = t298 + t299;
        const V t301 = c[8] * t282;
        const V t302 = c[2] * t278;
        const V t303 = c[4] * t271;
        const V t304 = t302 - t303;
        const V t305 = c[6] * t279;
        const V t306 = c[9] * t272;
        const V t307 = c[7] * t282;
        const V t308 = t306 + t307;
        const V t309 = c[0] * t278;
        const V t310 = t268 - t309;
        const V t311 = c[1] * t271;
        const V t312 = c[8] * t279;
        const V t313 = c[7] * t272;
        const V t314 = c[6] * t282;
        const V t315 = c[9] * t275;
        const V t316 = t314 + t315;
        const V t317 = c[4] * t278;
        const V t318 = t268 - t317;
        const V t319 = c[0] * t271;
        const V t320 = c[9] * t279;
        const V t321 = c[8] * t272;
        const V t322 = t320 + t321;
        const V t323 = c[5] * t282;
        const V t324 = c[1] * t278;
        const V t325 = t268 - t324;
        const V t326 = c[3] * t271;
        const V t327 = c[7] * t279;
        const V t328 = c[8] * t275;
        // doubled bins
        const V x8r = io.re(8);
        const V t329 = two * x8r;
        const V x12r = io.re(12);
        const V t330 = two * x12r;
        // real block of 11
        const V t331 = t329 + t330;
        const V t332 = c[4] * t331;
        const V t333 = c[0] * t331;
        const V t334 = c[3] * t331;
        const V t335 = t329 - t330;
        const V t336 = c[8] * t335;
        const V t337 = c[7] * t335;
        const V t338 = c[6] * t335;
        const V t339 = t285 + t331;
        const V t340 = t339 + t291;
        const V t341 = t340 + t268;
        // spectrum block of 23, multiplier 2
        const V t342 = c[30] * t341;
        // real block of 11
        const V t343 = t296 - t286;
        const V t344 = t343 - t332;
        const V t345 = t344 - t292;
        const V t346 = t345 + t268;
        // spectrum block of 23, multiplier 2
        const V t347 = c[10] * t346;
        const V t348 = c[11] * t346;
        // real block of 11
        const V t349 = c[9] * t335;
        const V t350 = t300 - t297;
        const V t351 = t350 - t301;
        const V t352 = t351 - t349;
        // spectrum block of 23, multiplier 2
        const V t353 = c[11] * t352;
        const V t354 = c[10] * t352;
        // real block of 11
        const V t355 = t304 - t287;
        const V t356 = t355 - t333;
        const V t357 = t356 + t293;
        const V t358 = t357 + t268;
        // spectrum block of 23, multiplier 2
        const V t359 = c[12] * t358;
        const V t360 = c[13] * t358;
        // real block of 11
        const V t361 = c[5] * t275;
        const V t362 = t308 + t336;
        const V t363 = t362 - t305;
        const V t364 = t363 - t361;
        // spectrum block of 23, multiplier 2
        const V t365 = c[13] * t364;
        const V t366 = c[12] * t364;
        // real block of 11
        const V t367 = t310 - t311;
        const V t368 = t367 + t288;
        const V t369 = t368 + t334;
        const V t370 = c[4] * t291;
        const V t371 = t369 - t370;
        // spectrum block of 23, multiplier 2
        const V t372 = c[14] * t371;
        // real block of 11
        const V t373 = c[5] * t335;
        const V t374 = t316 - t312;
        const V t375 = t374 - t313;
        const V t376 = t375 - t373;
        // spectrum block of 23, multiplier 2
        const V t377 = c[15] * t376;
        const V t378 = c[14] * t376;
        // real block of 11
        const V t379 = t318 - t319;
        const V t380 = t379 + t289;
        const V t381 = c[1] * t331;
        const V t382 = c[2] * t291;
        const V t383 = t380 - t381;
        const V t384 = t383 + t382;
        const V t385 = c[6] * t275;
        const V t386 = t322 + t323;
        const V t387 = t386 + t337;
        const V t388 = t387 + t385;
        // spectrum block of 23, multiplier 2
        const V t389 = c[16] * t388;
        // real block of 11
        const V t390 = t325 + t326;
        const V t391 = t390 - t290;
        const V t392 = c[2] * t331;
        const V t393 = c[0] * t291;
        const V t394 = t391 + t392;
        const V t395 = t394 - t393;
        const V t396 = c[5] * t272;
        const V t397 = c[9] * t282;
        const V t398 = t338 + t328;
        const V t399 = t398 - t327;
        const V t400 = t399 - t396;
        const V t401 = t400 - t397;
        // doubled bins
        const V x2i = io.im(2);
        const V t402 = two * x2i;
        const V x4i = io.im(4);
        const V t403 = two * x4i;
        const V x22i = io.im(22);
        const V t404 = two * x22i;
        // real block of 11
        const V t405 = t403 - t404;
        const V t406 = t404 + t403;
        // doubled bins
        const V x6i = io.im(6);
        const V t407 = two * x6i;
        const V x16i = io.im(16);
        const V t408 = two * x16i;
        // real block of 11
        const V t409 = t408 - t407;
        // doubled bins
        const V x10i = io.im(10);
        const V t410 = two * x10i;
        const V x18i = io.im(18);
        const V t411 = two * x18i;
        // real block of 11
        const V t412 = t411 - t410;
        const V t413 = t410 + t411;
        // doubled bins
        const V x14i = io.im(14);
        const V t414 = two * x14i;
        const V x20i = io.im(20);
        const V t415 = two * x20i;
        // real block of 11
        const V t416 = t414 - t415;
        const V t417 = t415 + t414;
        const V t418 = t412 + t405;
        const V t419 = t418 - t417;
        const V t420 = c[0] * t417;
        const V t421 = c[1] * t417;
        const V t422 = c[2] * t417;
        const V t423 = c[3] * t417;
        const V t424 = c[4] * t417;
        const V t425 = t408 + t407;
        const V t426 = c[1] * t425;
        const V t427 = c[3] * t425;
        const V t428 = c[3] * t412;
        const V t429 = c[2] * t405;
        const V t430 = t428 + t429;
        const V t431 = c[5] * t413;
        const V t432 = c[7] * t409;
        const V t433 = t431 + t432;
        const V t434 = c[6] * t406;
        const V t435 = c[8] * t416;
        const V t436 = c[2] * t412;
        const V t437 = c[4] * t405;
        const V t438 = t436 - t437;
        const V t439 = c[6] * t413;
        const V t440 = c[7] * t416;
        const V t441 = t439 + t440;
        const V t442 = c[9] * t406;
        const V t443 = c[0] * t412;
        const V t444 = t402 - t443;
        const V t445 = c[1] * t405;
        const V t446 = c[8] * t413;
        const V t447 = c[7] * t406;
        const V t448 = t446 + t447;
        const V t449 = c[6] * t416;
        const V t450 = c[9] * t409;
        const V t451 = c[4] * t412;
        const V t452 = t402 - t451;
        const V t453 = c[0] * t405;
        const V t454 = c[9] * t413;
        const V t455 = c[8] * t406;
        const V t456 = t454 + t455;
        const V t457 = c[5] * t416;
        const V t458 = c[1] * t412;
        const V t459 = t402 - t458;
        const V t460 = c[3] * t405;
        const V t461 = c[7] * t413;
        const V t462 = c[5] * t406;
        // doubled bins
        const V x8i = io.im(8);
        const V t463 = two * x8i;
        const V x12i = io.im(12);
        const V t464 = two * x12i;
        // real block of 11
        const V t465 = t463 + t464;
        const V t466 = c[4] * t465;
        const V t467 = c[0] * t465;
        const V t468 = c[3] * t465;
        const V t469 = t463 - t464;
        const V t470 = c[8] * t469;
        const V t471 = c[7] * t469;
        const V t472 = c[6] * t469;
        const V t473 = t419 + t465;
        const V t474 = t473 + t425;
        const V t475 = t474 + t402;
        // spectrum block of 23, multiplier 2
        const V t476 = c[31] * t475;
        // real block of 11
        const V t477 = t430 + t420;
        const V t478 = t477 - t466;
        const V t479 = t478 - t426;
        const V t480 = t479 + t402;
        // spectrum block of 23, multiplier 2
        const V t481 = c[17] * t480;
        const V t482 = c[18] * t480;
        // real block of 11
        const V t483 = c[9] * t469;
        const V t484 = t433 - t434;
        const V t485 = t484 - t435;
        const V t486 = t485 - t483;
        // spectrum block of 23, multiplier 2
        const V t487 = c[18] * t486;
        const V t488 = c[17] * t486;
        // real block of 11
        const V t489 = t438 + t421;
        const V t490 = t489 - t467;
        const V t491 = t490 + t427;
        const V t492 = t491 + t402;
        // spectrum block of 23, multiplier 2
        const V t493 = c[19] * t492;
        const V t494 = c[20] * t492;
        // real block of 11
        const V t495 = c[5] * t409;
        const V t496 = t441 + t470;
        const V t497 = t496 - t442;
        const V t498 = t497 - t495;
        // spectrum block of 23, multiplier 2
        const V t499 = c[20] * t498;
        const V t500 = c[19] * t498;
        // real block of 11
        const V t501 = t444 - t445;
        const V t502 = t501 - t422;
        const V t503 = t502 + t468;
        const V t504 = c[4] * t425;
        const V t505 = t503 - t504;
        // spectrum block of 23, multiplier 2
        const V t506 = c[21] * t505;
        // real block of 11
        const V t507 = c[5] * t469;
        const V t508 = t448 + t449;
        const V t509 = t508 + t450;
        const V t510 = t509 - t507;
        // spectrum block of 23, multiplier 2
        const V t511 = c[22] * t510;
        const V t512 = c[21] * t510;
        // real block of 11
        const V t513 = t452 - t453;
        const V t514 = t513 - t423;
        const V t515 = c[1] * t465;
        const V t516 = c[2] * t425;
        const V t517 = t514 - t515;
        const V t518 = t517 + t516;
        const V t519 = c[6] * t409;
        const V t520 = t456 - t457;
        const V t521 = t520 - t471;
        const V t522 = t521 - t519;
        // spectrum block of 23, multiplier 2
        const V t523 = c[23] * t522;
        // real block of 11
        const V t524 = t459 + t460;
        const V t525 = t524 + t424;
        const V t526 = c[2] * t465;
        const V t527 = c[0] * t425;
        const V t528 = t525 + t526;
        const V t529 = t528 - t527;
        const V t530 = c[9] * t416;
        const V t531 = c[8] * t409;
        const V t532 = t461 + t462;
        const V t533 = t532 + t472;
        const V t534 = t533 + t531;
        const V t535 = t534 - t530;
        // spectrum block of 23, multiplier 2
        const V x0r = io.re(0);
        const V t536 = x0r - t342;
        const V t537 = t347 - t353;
        // spectrum block of 11, multiplier 2
        const V t538 = c[3] * t537;
        const V t539 = c[2] * t537;
        const V t540 = c[0] * t537;
        const V t541 = c[4] * t537;
        const V t542 = c[1] * t537;
        // spectrum block of 23, multiplier 2
        const V t543 = t365 - t359;
        // spectrum block of 11, multiplier 2
        const V t544 = c[2] * t543;
        const V t545 = c[4] * t543;
        const V t546 = t537 + t543;
        const V t547 = t538 + t544;
        const V t548 = t539 - t545;
        const V t549 = t536 - t540;
        const V t550 = c[1] * t543;
        const V t551 = t536 - t541;
        const V t552 = c[0] * t543;
        const V t553 = t536 - t542;
        const V t554 = c[3] * t543;
        // spectrum block of 23, multiplier 2
        const V t555 = t377 - t372;
        // spectrum block of 11, multiplier 2
        const V t556 = c[0] * t555;
        const V t557 = c[1] * t555;
        const V t558 = c[2] * t555;
        const V t559 = c[3] * t555;
        const V t560 = c[4] * t555;
        // spectrum block of 23, multiplier 2
        const V t561 = c[24] * t384;
        const V t562 = t561 + t389;
        // spectrum block of 11, multiplier 2
        const V t563 = t546 + t555;
        const V t564 = t563 + t562;
        const V t565 = t547 - t556;
        const V t566 = c[4] * t562;
        const V t567 = t565 - t566;
        const V t568 = t548 - t557;
        const V t569 = c[0] * t562;
        const V t570 = t568 - t569;
        const V t571 = t549 - t550;
        const V t572 = t571 + t558;
        const V t573 = c[3] * t562;
        const V t574 = t551 - t552;
        const V t575 = t574 + t559;
        const V t576 = c[1] * t562;
        const V t577 = t553 + t554;
        const V t578 = t577 - t560;
        const V t579 = c[2] * t562;
        // spectrum block of 23, multiplier 2
        const V t580 = c[25] * t535;
        const V t581 = c[26] * t529;
        const V t582 = t580 - t581;
        // spectrum block of 11, multiplier 2
        const V t583 = c[1] * t582;
        const V t584 = c[3] * t582;
        const V t585 = c[4] * t582;
        const V t586 = c[2] * t582;
        const V t587 = c[0] * t582;
        // spectrum block of 23, multiplier 2
        const V t588 = c[25] * t529;
        const V t589 = c[26] * t535;
        const V t590 = t589 + t588;
        // spectrum block of 11, multiplier 2
        const V t591 = c[7] * t590;
        const V t592 = c[5] * t590;
        const V t593 = c[9] * t590;
        const V t594 = c[6] * t590;
        const V t595 = c[8] * t590;
        // spectrum block of 23, multiplier 2
        const V t596 = t354 + t348;
        // spectrum block of 11, multiplier 2
        const V t597 = c[5] * t596;
        const V t598 = c[6] * t596;
        const V t599 = c[8] * t596;
        const V t600 = c[9] * t596;
        const V t601 = c[7] * t596;
        // spectrum block of 23, multiplier 2
        const V t602 = t366 + t360;
        // spectrum block of 11, multiplier 2
        const V t603 = c[6] * t602;
        const V t604 = c[9] * t602;
        const V t605 = c[7] * t602;
        const V t606 = c[8] * t602;
        const V t607 = c[5] * t602;
        const V t608 = t597 - t603;
        const V t609 = t598 - t604;
        const V t610 = t599 + t605;
        const V t611 = t600 + t606;
        const V t612 = t601 + t607;
        // spectrum block of 23, multiplier 2
        const V t613 = c[15] * t371;
        const V t614 = t378 + t613;
        // spectrum block of 11, multiplier 2
        const V t615 = c[8] * t614;
        const V t616 = c[7] * t614;
        const V t617 = c[6] * t614;
        const V t618 = c[5] * t614;
        const V t619 = c[9] * t614;
        // spectrum block of 23, multiplier 2
        const V t620 = c[16] * t384;
        const V t621 = c[24] * t388;
        const V t622 = t620 - t621;
        // spectrum block of 11, multiplier 2
        const V t623 = t608 - t615;
        const V t624 = c[9] * t622;
        const V t625 = t623 + t624;
        const V t626 = t609 + t616;
        const V t627 = c[8] * t622;
        const V t628 = t626 - t627;
        const V t629 = t610 + t617;
        const V t630 = c[5] * t622;
        const V t631 = t629 + t630;
        const V t632 = t611 - t618;
        const V t633 = c[7] * t622;
        const V t634 = t632 + t633;
        const V t635 = t612 - t619;
        const V t636 = c[6] * t622;
        const V t637 = t635 - t636;
        // spectrum block of 23, multiplier 2
        const V t638 = c[27] * t518;
        const V t639 = t638 + t523;
        const V t640 = t511 - t506;
        // spectrum block of 11, multiplier 2
        const V t641 = c[0] * t640;
        const V t642 = c[1] * t640;
        const V t643 = c[2] * t640;
        const V t644 = c[3] * t640;
        const V t645 = c[4] * t640;
        // spectrum block of 23, multiplier 2
        const V t646 = t493 - t499;
        // spectrum block of 11, multiplier 2
        const V t647 = c[2] * t646;
        const V t648 = c[4] * t646;
        // spectrum block of 23, multiplier 2
        const V t649 = t481 + t487;
        // spectrum block of 11, multiplier 2
        const V t650 = c[3] * t649;
        const V t651 = c[2] * t649;
        const V t652 = c[0] * t649;
        const V t653 = c[4] * t649;
        const V t654 = c[1] * t649;
        const V t655 = t649 + t646;
        const V t656 = t650 + t647;
        const V t657 = t651 - t648;
        const V t658 = t476 + t652;
        const V t659 = c[1] * t646;
        const V t660 = t476 + t653;
        const V t661 = c[0] * t646;
        const V t662 = t476 + t654;
        const V t663 = c[3] * t646;
        const V t664 = t655 + t640;
        const V t665 = t664 - t639;
        const V t666 = t656 - t641;
        const V t667 = c[4] * t639;
        const V t668 = t666 + t667;
        const V t669 = t657 - t642;
        const V t670 = c[0] * t639;
        const V t671 = t669 + t670;
        const V t672 = t658 + t659;
        const V t673 = t643 - t672;
        const V t674 = c[3] * t639;
        const V t675 = t660 + t661;
        const V t676 = t644 - t675;
        const V t677 = c[1] * t639;
        const V t678 = t663 - t662;
        const V t679 = t678 - t645;
        const V t680 = c[2] * t639;
        // spectrum block of 23, multiplier 2
        const V t681 = c[23] * t518;
        const V t682 = c[27] * t522;
        const V t683 = t682 - t681;
        const V t684 = c[22] * t505;
        const V t685 = t512 + t684;
        // spectrum block of 11, multiplier 2
        const V t686 = c[8] * t685;
        const V t687 = c[7] * t685;
        const V t688 = c[6] * t685;
        const V t689 = c[5] * t685;
        const V t690 = c[9] * t685;
        // spectrum block of 23, multiplier 2
        const V t691 = t500 + t494;
        // spectrum block of 11, multiplier 2
        const V t692 = c[6] * t691;
        const V t693 = c[9] * t691;
        const V t694 = c[7] * t691;
        const V t695 = c[8] * t691;
        const V t696 = c[5] * t691;
        // spectrum block of 23, multiplier 2
        const V t697 = t482 - t488;
        // spectrum block of 11, multiplier 2
        const V t698 = c[5] * t697;
        const V t699 = c[6] * t697;
        const V t700 = c[8] * t697;
        const V t701 = c[9] * t697;
        const V t702 = c[7] * t697;
        const V t703 = t692 - t698;
        const V t704 = t693 - t699;
        const V t705 = t700 + t694;
        const V t706 = t701 + t695;
        const V t707 = t702 + t696;
        const V t708 = t703 - t686;
        const V t709 = c[9] * t683;
        const V t710 = t708 - t709;
        const V t711 = t704 + t687;
        const V t712 = c[8] * t683;
        const V t713 = t711 + t712;
        const V t714 = t688 - t705;
        const V t715 = c[5] * t683;
        const V t716 = t714 - t715;
        const V t717 = t706 + t689;
        const V t718 = c[7] * t683;
        const V t719 = t717 + t718;
        const V t720 = t707 + t690;
        const V t721 = c[6] * t683;
        const V t722 = t721 - t720;
        // spectrum block of 23, multiplier 2
        const V t723 = c[28] * t401;
        const V t724 = c[29] * t395;
        const V t725 = t724 - t723;
        // spectrum block of 11, multiplier 2
        const V t726 = c[1] * t725;
        const V t727 = c[3] * t725;
        const V t728 = c[4] * t725;
        const V t729 = c[2] * t725;
        const V t730 = c[0] * t725;
        // spectrum block of 23, multiplier 2
        const V t731 = c[28] * t395;
        const V t732 = c[29] * t401;
        const V t733 = t732 + t731;
        // spectrum block of 11, multiplier 2
        const V t734 = c[7] * t733;
        const V t735 = c[5] * t733;
        const V t736 = c[9] * t733;
        const V t737 = c[6] * t733;
        const V t738 = c[8] * t733;
        // spectrum block of 23, multiplier 2
        const V x23r = io.re(23);
        const V t739 = x23r - t74;
        const V t740 = t79 - t85;
        // spectrum block of 11, multiplier 2
        const V t741 = c[3] * t740;
        const V t742 = c[2] * t740;
        const V t743 = c[0] * t740;
        const V t744 = c[4] * t740;
        const V t745 = c[1] * t740;
        // spectrum block of 23, multiplier 2
        const V t746 = t97 - t91;
        // spectrum block of 11, multiplier 2
        const V t747 = c[2] * t746;
        const V t748 = c[4] * t746;
        const V t749 = t740 + t746;
        const V t750 = t741 + t747;
        const V t751 = t742 - t748;
        const V t752 = t739 - t743;
        const V t753 = c[1] * t746;
        const V t754 = t739 - t744;
        const V t755 = c[0] * t746;
        const V t756 = t739 - t745;
        const V t757 = c[3] * t746;
        // spectrum block of 23, multiplier 2
        const V t758 = t109 - t104;
        // spectrum block of 11, multiplier 2
        const V t759 = c[0] * t758;
        const V t760 = c[1] * t758;
        const V t761 = c[2] * t758;
        const V t762 = c[3] * t758;
        const V t763 = c[4] * t758;
        // spectrum block of 23, multiplier 2
        const V t764 = c[24] * t116;
        const V t765 = t764 + t121;
        // spectrum block of 11, multiplier 2
        const V t766 = t749 + t758;
        const V t767 = t766 + t765;
        const V t768 = t750 - t759;
        const V t769 = c[4] * t765;
        const V t770 = t768 - t769;
        const V t771 = t751 - t760;
        const V t772 = c[0] * t765;
        const V t773 = t771 - t772;
        const V t774 = t752 - t753;
        const V t775 = t774 + t761;
        const V t776 = c[3] * t765;
        const V t777 = t754 - t755;
        const V t778 = t777 + t762;
        const V t779 = c[1] * t765;
        const V t780 = t756 + t757;
        const V t781 = t780 - t763;
        const V t782 = c[2] * t765;
        // spectrum block of 23, multiplier 2
        const V t783 = c[25] * t267;
        const V t784 = c[26] * t261;
        const V t785 = t783 - t784;
        // spectrum block of 11, multiplier 2
        const V t786 = c[1] * t785;
        const V t787 = c[3] * t785;
        const V t788 = c[4] * t785;
        const V t789 = c[2] * t785;
        const V t790 = c[0] * t785;
        // spectrum block of 23, multiplier 2
        const V t791 = c[25] * t261;
        const V t792 = c[26] * t267;
        const V t793 = t792 + t791;
        // spectrum block of 11, multiplier 2
        const V t794 = c[7] * t793;
        const V t795 = c[5] * t793;
        const V t796 = c[9] * t793;
        const V t797 = c[6] * t793;
        const V t798 = c[8] * t793;
        // spectrum block of 23, multiplier 2
        const V t799 = t86 + t80;
        // spectrum block of 11, multiplier 2
        const V t800 = c[5] * t799;
        const V t801 = c[6] * t799;
        const V t802 = c[8] * t799;
        const V t803 = c[9] * t799;
        const V t804 = c[7] * t799;
        // spectrum block of 23, multiplier 2
        const V t805 = t98 + t92;
        // spectrum block of 11, multiplier 2
        const V t806 = c[6] * t805;
        const V t807 = c[9] * t805;
        const V t808 = c[7] * t805;
        const V t809 = c[8] * t805;
        const V t810 = c[5] * t805;
        const V t811 = t800 - t806;
        const V t812 = t801 - t807;
        const V t813 = t802 + t808;
        const V t814 = t803 + t809;
        const V t815 = t804 + t810;
        // spectrum block of 23, multiplier 2
        const V t816 = c[15] * t103;
        const V t817 = t110 + t816;
        // spectrum block of 11, multiplier 2
        const V t818 = c[8] * t817;
        const V t819 = c[7] * t817;
        const V t820 = c[6] * t817;
        const V t821 = c[5] * t817;
        const V t822 = c[9] * t817;
        // spectrum block of 23, multiplier 2
        const V t823 = c[16] * t116;
        const V t824 = c[24] * t120;
        const V t825 = t823 - t824;
        // spectrum block of 11, multiplier 2
        const V t826 = t811 - t818;
        const V t827 = c[9] * t825;
        const V t828 = t826 + t827;
        const V t829 = t812 + t819;
        const V t830 = c[8] * t825;
        const V t831 = t829 - t830;
        const V t832 = t813 + t820;
        const V t833 = c[5] * t825;
        const V t834 = t832 + t833;
        const V t835 = t814 - t821;
        const V t836 = c[7] * t825;
        const V t837 = t835 + t836;
        const V t838 = t815 - t822;
        const V t839 = c[6] * t825;
        const V t840 = t838 - t839;
        // spectrum block of 23, multiplier 2
        const V t841 = c[27] * t250;
        const V t842 = t255 - t841;
        const V t843 = t243 - t238;
        // spectrum block of 11, multiplier 2
        const V t844 = c[0] * t843;
        const V t845 = c[1] * t843;
        const V t846 = c[2] * t843;
        const V t847 = c[3] * t843;
        const V t848 = c[4] * t843;
        // spectrum block of 23, multiplier 2
        const V t849 = t225 - t231;
        // spectrum block of 11, multiplier 2
        const V t850 = c[2] * t849;
        const V t851 = c[4] * t849;
        // spectrum block of 23, multiplier 2
        const V t852 = t213 + t219;
        // spectrum block of 11, multiplier 2
        const V t853 = c[3] * t852;
        const V t854 = c[2] * t852;
        const V t855 = c[0] * t852;
        const V t856 = c[4] * t852;
        const V t857 = c[1] * t852;
        const V t858 = t852 + t849;
        const V t859 = t853 + t850;
        const V t860 = t854 - t851;
        const V t861 = t208 + t855;
        const V t862 = c[1] * t849;
        const V t863 = t208 + t856;
        const V t864 = c[0] * t849;
        const V t865 = t208 + t857;
        const V t866 = c[3] * t849;
        const V t867 = t858 + t843;
        const V t868 = t867 + t842;
        const V t869 = t859 - t844;
        const V t870 = c[4] * t842;
        const V t871 = t869 - t870;
        const V t872 = t860 - t845;
        const V t873 = c[0] * t842;
        const V t874 = t872 - t873;
        const V t875 = t861 + t862;
        const V t876 = t846 - t875;
        const V t877 = c[3] * t842;
        const V t878 = t863 + t864;
        const V t879 = t847 - t878;
        const V t880 = c[1] * t842;
        const V t881 = t866 - t865;
        const V t882 = t881 - t848;
        const V t883 = c[2] * t842;
        // spectrum block of 23, multiplier 2
        const V t884 = c[23] * t250;
        const V t885 = c[27] * t254;
        const V t886 = t885 + t884;
        const V t887 = c[22] * t237;
        const V t888 = t244 + t887;
        // spectrum block of 11, multiplier 2
        const V t889 = c[8] * t888;
        const V t890 = c[7] * t888;
        const V t891 = c[6] * t888;
        const V t892 = c[5] * t888;
        const V t893 = c[9] * t888;
        // spectrum block of 23, multiplier 2
        const V t894 = t232 + t226;
        // spectrum block of 11, multiplier 2
        const V t895 = c[6] * t894;
        const V t896 = c[9] * t894;
        const V t897 = c[7] * t894;
        const V t898 = c[8] * t894;
        const V t899 = c[5] * t894;
        // spectrum block of 23, multiplier 2
        const V t900 = t214 - t220;
        // spectrum block of 11, multiplier 2
        const V t901 = c[5] * t900;
        const V t902 = c[6] * t900;
        const V t903 = c[8] * t900;
        const V t904 = c[9] * t900;
        const V t905 = c[7] * t900;
        const V t906 = t895 - t901;
        const V t907 = t896 - t902;
        const V t908 = t903 + t897;
        const V t909 = t904 + t898;
        const V t910 = t905 + t899;
        const V t911 = t906 - t889;
        const V t912 = c[9] * t886;
        const V t913 = t911 + t912;
        const V t914 = t907 + t890;
        const V t915 = c[8] * t886;
        const V t916 = t914 - t915;
        const V t917 = t891 - t908;
        const V t918 = c[5] * t886;
        const V t919 = t917 + t918;
        const V t920 = t909 + t892;
        const V t921 = c[7] * t886;
        const V t922 = t921 - t920;
        const V t923 = t910 + t893;
        const V t924 = c[6] * t886;
        const V t925 = t923 + t924;
        // spectrum block of 23, multiplier 2
        const V t926 = c[28] * t133;
        const V t927 = c[29] * t127;
        const V t928 = t927 - t926;
        // spectrum block of 11, multiplier 2
        const V t929 = c[1] * t928;
        const V t930 = c[3] * t928;
        const V t931 = c[4] * t928;
        const V t932 = c[2] * t928;
        const V t933 = c[0] * t928;
        // spectrum block of 23, multiplier 2
        const V t934 = c[28] * t127;
        const V t935 = c[29] * t133;
        const V t936 = t935 + t934;
        // spectrum block of 11, multiplier 2
        const V t937 = c[7] * t936;
        const V t938 = c[5] * t936;
        const V t939 = c[9] * t936;
        const V t940 = c[6] * t936;
        const V t941 = c[8] * t936;
        // spectrum block of 11, multiplier 2
        const V t942 = t564 + t725;
        const V t943 = t942 + t536;
        // spectrum block of 11, multiplier 2
        const V t944 = t665 + t582;
        const V t945 = t944 - t476;
        // spectrum block of 11, multiplier 2
        const V t946 = t767 + t928;
        const V t947 = t946 + t739;
        // spectrum block of 11, multiplier 2
        const V t948 = t868 + t785;
        const V t949 = t948 - t208;
        // spectrum block of 2
        const V t950 = t943 + t945;
        // spectrum block of 2
        const V t951 = t947 + t949;
        // spectrum block of 2
        const V t952 = t950 + t951;
        io.out(2, t952);
        const V t953 = t950 - t951;
        io.out(25, t953);
        // spectrum block of 2
        const V t954 = t943 - t945;
        // spectrum block of 2
        const V t955 = t947 - t949;
        // spectrum block of 2
        const V t956 = t954 + t955;
        io.out(44, t956);
        const V t957 = t954 - t955;
        io.out(21, t957);
        // spectrum block of 11, multiplier 2
        const V t958 = t567 - t726;
        const V t959 = t958 + t536;
        const V t960 = t625 + t734;
        const V t961 = t959 - t960;
        const V t962 = t959 + t960;
        // spectrum block of 11, multiplier 2
        const V t963 = t668 - t583;
        const V t964 = t963 - t476;
        const V t965 = t710 - t591;
        const V t966 = t964 - t965;
        const V t967 = t964 + t965;
        // spectrum block of 11, multiplier 2
        const V t968 = t770 - t929;
        const V t969 = t968 + t739;
        const V t970 = t828 + t937;
        const V t971 = t969 - t970;
        const V t972 = t969 + t970;
        // spectrum block of 11, multiplier 2
        const V t973 = t871 - t786;
        const V t974 = t973 - t208;
        const V t975 = t913 - t794;
        const V t976 = t974 - t975;
        const V t977 = t974 + t975;
        // spectrum block of 2
        const V t978 = t962 + t967;
        // spectrum block of 2
        const V t979 = t972 + t977;
        // spectrum block of 2
        const V t980 = t978 + t979;
        io.out(36, t980);
        const V t981 = t978 - t979;
        io.out(13, t981);
        // spectrum block of 2
        const V t982 = t962 - t967;
        // spectrum block of 2
        const V t983 = t972 - t977;
        // spectrum block of 2
        const V t984 = t982 + t983;
        io.out(10, t984);
        const V t985 = t982 - t983;
        io.out(33, t985);
        // spectrum block of 2
        const V t986 = t961 + t966;
        // spectrum block of 2
        const V t987 = t971 + t976;
        // spectrum block of 2
        const V t988 = t986 + t987;
        io.out(18, t988);
        const V t989 = t986 - t987;
        io.out(41, t989);
        // spectrum block of 2
        const V t990 = t961 - t966;
        // spectrum block of 2
        const V t991 = t971 - t976;
        // spectrum block of 2
        const V t992 = t990 + t991;
        io.out(28, t992);
        const V t993 = t990 - t991;
        io.out(5, t993);
        // spectrum block of 11, multiplier 2
        const V t994 = t570 + t727;
        const V t995 = t994 + t536;
        const V t996 = t628 - t735;
        const V t997 = t995 - t996;
        const V t998 = t995 + t996;
        // spectrum block of 11, multiplier 2
        const V t999 = t671 + t584;
        const V t1000 = t999 - t476;
        const V t1001 = t713 + t592;
        const V t1002 = t1000 - t1001;
        const V t1003 = t1000 + t1001;
        // spectrum block of 11, multiplier 2
        const V t1004 = t773 + t930;
        const V t1005 = t1004 + t739;
        const V t1006 = t831 - t938;
        const V t1007 = t1005 - t1006;
        const V t1008 = t1005 + t1006;
        // spectrum block of 11, multiplier 2
        const V t1009 = t874 + t787;
        const V t1010 = t1009 - t208;
        const V t1011 = t916 + t795;
        const V t1012 = t1010 - t1011;
        const V t1013 = t1010 + t1011;
        // spectrum block of 2
        const V t1014 = t997 + t1002;
        // spectrum block of 2
        const V t1015 = t1007 + t1012;
        // spectrum block of 2
        const V t1016 = t1014 + t1015;
        io.out(24, t1016);
        const V t1017 = t1014 - t1015;
        io.out(1, t1017);
        // spectrum block of 2
        const V t1018 = t997 - t1002;
        // spectrum block of 2
        const V t1019 = t1007 - t1012;
        // spectrum block of 2
        const V t1020 = t1018 + t1019;
        io.out(22, t1020);
        const V t1021 = t1018 - t1019;
        io.out(45, t1021);
        // spectrum block of 2
        const V t1022 = t998 + t1003;
        // spectrum block of 2
        const V t1023 = t1008 + t1013;
        // spectrum block of 2
        const V t1024 = t1022 + t1023;
        io.out(4, t1024);
        const V t1025 = t1022 - t1023;
        io.out(27, t1025);
        // spectrum block of 2
        const V t1026 = t998 - t1003;
        // spectrum block of 2
        const V t1027 = t1008 - t1013;
        // spectrum block of 2
        const V t1028 = t1026 + t1027;
        io.out(42, t1028);
        const V t1029 = t1026 - t1027;
        io.out(19, t1029);
        // spectrum block of 11, multiplier 2
        const V t1030 = t572 + t573;
        const V t1031 = t1030 - t728;
        const V t1032 = t631 + t736;
        const V t1033 = t1031 - t1032;
        const V t1034 = t1031 + t1032;
        // spectrum block of 11, multiplier 2
        const V t1035 = t673 - t674;
        const V t1036 = t1035 - t585;
        const V t1037 = t716 - t593;
        const V t1038 = t1036 - t1037;
        const V t1039 = t1036 + t1037;
        // spectrum block of 11, multiplier 2
        const V t1040 = t775 + t776;
        const V t1041 = t1040 - t931;
        const V t1042 = t834 + t939;
        const V t1043 = t1041 - t1042;
        const V t1044 = t1041 + t1042;
        // spectrum block of 11, multiplier 2
        const V t1045 = t876 + t877;
        const V t1046 = t1045 - t788;
        const V t1047 = t919 - t796;
        const V t1048 = t1046 - t1047;
        const V t1049 = t1046 + t1047;
        // spectrum block of 2
        const V t1050 = t1034 + t1039;
        // spectrum block of 2
        const V t1051 = t1044 + t1049;
        // spectrum block of 2
        const V t1052 = t1050 + t1051;
        io.out(26, t1052);
        const V t1053 = t1050 - t1051;
        io.out(3, t1053);
        // spectrum block of 2
        const V t1054 = t1034 - t1039;
        // spectrum block of 2
        const V t1055 = t1044 - t1049;
        // spectrum block of 2
        const V t1056 = t1054 + t1055;
        io.out(20, t1056);
        const V t1057 = t1054 - t1055;
        io.out(43, t1057);
        // spectrum block of 2
        const V t1058 = t1033 + t1038;
        // spectrum block of 2
        const V t1059 = t1043 + t1048;
        // spectrum block of 2
        const V t1060 = t1058 + t1059;
        io.out(32, t1060);
        const V t1061 = t1058 - t1059;
        io.out(9, t1061);
        // spectrum block of 2
        const V t1062 = t1033 - t1038;
        // spectrum block of 2
        const V t1063 = t1043 - t1048;
        // spectrum block of 2
        const V t1064 = t1062 + t1063;
        io.out(14, t1064);
        const V t1065 = t1062 - t1063;
        io.out(37, t1065);
        // spectrum block of 11, multiplier 2
        const V t1066 = t575 - t576;
        const V t1067 = t1066 + t729;
        const V t1068 = t634 - t737;
        const V t1069 = t1067 - t1068;
        const V t1070 = t1067 + t1068;
        // spectrum block of 11, multiplier 2
        const V t1071 = t676 + t677;
        const V t1072 = t1071 + t586;
        const V t1073 = t594 - t719;
        const V t1074 = t1072 - t1073;
        const V t1075 = t1072 + t1073;
        // spectrum block of 11, multiplier 2
        const V t1076 = t778 - t779;
        const V t1077 = t1076 + t932;
        const V t1078 = t837 - t940;
        const V t1079 = t1077 - t1078;
        const V t1080 = t1077 + t1078;
        // spectrum block of 11, multiplier 2
        const V t1081 = t879 - t880;
        const V t1082 = t1081 + t789;
        const V t1083 = t922 + t797;
        const V t1084 = t1082 - t1083;
        const V t1085 = t1082 + t1083;
        // spectrum block of 2
        const V t1086 = t1069 + t1074;
        // spectrum block of 2
        const V t1087 = t1079 + t1084;
        // spectrum block of 2
        const V t1088 = t1086 + t1087;
        io.out(12, t1088);
        const V t1089 = t1086 - t1087;
        io.out(35, t1089);
        // spectrum block of 2
        const V t1090 = t1069 - t1074;
        // spectrum block of 2
        const V t1091 = t1079 - t1084;
        // spectrum block of 2
        const V t1092 = t1090 + t1091;
        io.out(34, t1092);
        const V t1093 = t1090 - t1091;
        io.out(11, t1093);
        // spectrum block of 2
        const V t1094 = t1070 + t1075;
        // spectrum block of 2
        const V t1095 = t1080 + t1085;
        // spectrum block of 2
        const V t1096 = t1094 + t1095;
        io.out(8, t1096);
        const V t1097 = t1094 - t1095;
        io.out(31, t1097);
        // spectrum block of 2
        const V t1098 = t1070 - t1075;
        // spectrum block of 2
        const V t1099 = t1080 - t1085;
        // spectrum block of 2
        const V t1100 = t1098 + t1099;
        io.out(38, t1100);
        const V t1101 = t1098 - t1099;
        io.out(15, t1101);
        // spectrum block of 11, multiplier 2
        const V t1102 = t578 + t579;
        const V t1103 = t1102 - t730;
        const V t1104 = t637 + t738;
        const V t1105 = t1103 - t1104;
        const V t1106 = t1103 + t1104;
        // spectrum block of 11, multiplier 2
        const V t1107 = t679 - t680;
        const V t1108 = t1107 - t587;
        const V t1109 = t722 - t595;
        const V t1110 = t1108 - t1109;
        const V t1111 = t1108 + t1109;
        // spectrum block of 11, multiplier 2
        const V t1112 = t781 + t782;
        const V t1113 = t1112 - t933;
        const V t1114 = t840 + t941;
        const V t1115 = t1113 - t1114;
        const V t1116 = t1113 + t1114;
        // spectrum block of 11, multiplier 2
        const V t1117 = t882 + t883;
        const V t1118 = t1117 - t790;
        const V t1119 = t925 + t798;
        const V t1120 = t1118 + t1119;
        const V t1121 = t1118 - t1119;
        // spectrum block of 2
        const V t1122 = t1106 + t1111;
        // spectrum block of 2
        const V t1123 = t1116 + t1121;
        // spectrum block of 2
        const V t1124 = t1122 + t1123;
        io.out(6, t1124);
        const V t1125 = t1122 - t1123;
        io.out(29, t1125);
        // spectrum block of 2
        const V t1126 = t1106 - t1111;
        // spectrum block of 2
        const V t1127 = t1116 - t1121;
        // spectrum block of 2
        const V t1128 = t1126 + t1127;
        io.out(40, t1128);
        const V t1129 = t1126 - t1127;
        io.out(17, t1129);
        // spectrum block of 2
        const V t1130 = t1105 + t1110;
        // spectrum block of 2
        const V t1131 = t1115 + t1120;
        // spectrum block of 2
        const V t1132 = t1130 + t1131;
        io.out(16, t1132);
        const V t1133 = t1130 - t1131;
        io.out(39, t1133);
        // spectrum block of 2
        const V t1134 = t1105 - t1110;
        // spectrum block of 2
        const V t1135 = t1115 - t1120;
        // spectrum block of 2
        const V t1136 = t1134 + t1135;
        io.out(30, t1136);
        const V t1137 = t1134 - t1135;
        io.out(7, t1137);
        // spectrum block of 23, multiplier 2
        const V t1138 = x0r + t341;
        // spectrum block of 23, multiplier 2
        const V t1139 = x23r + t73;
        // spectrum block of 2
        const V t1140 = t1138 + t1139;
        io.out(0, t1140);
        const V t1141 = t1138 - t1139;
        io.out(23, t1141);
    }
};

}  // namespace zulg
