// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 34.
// Complex DFT of 34 points, prime-factor, order 2, 17.
// 298 additions, 298 subtractions, 216 multiplications (284 with `scale`); 19 constants; 70 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<34> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.09543059459065593,  // c[3]: P[1] of 17
        0.506476062234015,  // c[4]: Q[1] of 17
        0.3809911760447736,  // c[5]: Q[2] of 17
        0.347088927763506,  // c[6]: P[2] of 17
        0.3049677689722511,  // c[7]: P[3] of 17
        0.4154752217498508,  // c[8]: -Q[3] of 17
        0.40623178445333147,  // c[9]: -Q[4] of 17
        0.31717619283272513,  // c[10]: -P[4] of 17
        0.4374199883186445,  // c[11]: P[5] of 17
        0.27255963351038787,  // c[12]: Q[5] of 17
        0.039110758925753275,  // c[13]: -Q[6] of 17
        0.5139020806887744,  // c[14]: P[6] of 17
        0.4116323317536197,  // c[15]: P[7] of 17
        0.3101351696520051,  // c[16]: Q[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x17r = io.re(17);
        const V t0 = x0r + x17r;
        const V x0i = io.im(0);
        const V x17i = io.im(17);
        const V t1 = x0i + x17i;
        const V t2 = x0r - x17r;
        const V t3 = x0i - x17i;
        // complex block of 2
        const V x2r = io.re(2);
        const V x19r = io.re(19);
        const V t4 = x2r + x19r;
        const V x2i = io.im(2);
        const V x19i = io.im(19);
        const V t5 = x2i + x19i;
        const V t6 = x2r - x19r;
        const V t7 = x2i - x19i;
        // complex block of 2
        const V x4r = io.re(4);
        const V x21r = io.re(21);
        const V t8 = x4r + x21r;
        const V x4i = io.im(4);
        const V x21i = io.im(21);
        const V t9 = x4i + x21i;
        const V t10 = x4r - x21r;
        const V t11 = x4i - x21i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x23r = io.re(23);
        const V t12 = x6r + x23r;
        const V x6i = io.im(6);
        const V x23i = io.im(23);
        const V t13 = x6i + x23i;
        const V t14 = x6r - x23r;
        const V t15 = x6i - x23i;
        // complex block of 2
        const V x8r = io.re(8);
        const V x25r = io.re(25);
        const V t16 = x8r + x25r;
        const V x8i = io.im(8);
        const V x25i = io.im(25);
        const V t17 = x8i + x25i;
        const V t18 = x8r - x25r;
        const V t19 = x8i - x25i;
        // complex block of 2
        const V x10r = io.re(10);
        const V x27r = io.re(27);
        const V t20 = x10r + x27r;
        const V x10i = io.im(10);
        const V x27i = io.im(27);
        const V t21 = x10i + x27i;
        const V t22 = x10r - x27r;
        const V t23 = x10i - x27i;
        // complex block of 2
        const V x12r = io.re(12);
        const V x29r = io.re(29);
        const V t24 = x12r + x29r;
        const V x12i = io.im(12);
        const V x29i = io.im(29);
        const V t25 = x12i + x29i;
        const V t26 = x12r - x29r;
        const V t27 = x12i - x29i;
        // complex block of 2
        const V x14r = io.re(14);
        const V x31r = io.re(31);
        const V t28 = x14r + x31r;
        const V x14i = io.im(14);
        const V x31i = io.im(31);
        const V t29 = x14i + x31i;
        const V t30 = x14r - x31r;
        const V t31 = x14i - x31i;
        // complex block of 2
        const V x16r = io.re(16);
        const V x33r = io.re(33);
        const V t32 = x16r + x33r;
        const V x16i = io.im(16);
        const V x33i = io.im(33);
        const V t33 = x16i + x33i;
        const V t34 = x16r - x33r;
        const V t35 = x16i - x33i;
        // complex block of 2
        const V x18r = io.re(18);
        const V x1r = io.re(1);
        const V t36 = x18r + x1r;
        const V x18i = io.im(18);
        const V x1i = io.im(1);
        const V t37 = x18i + x1i;
        const V t38 = x18r - x1r;
        const V t39 = x18i - x1i;
        // complex block of 2
        const V x20r = io.re(20);
        const V x3r = io.re(3);
        const V t40 = x20r + x3r;
        const V x20i = io.im(20);
        const V x3i = io.im(3);
        const V t41 = x20i + x3i;
        const V t42 = x20r - x3r;
        const V t43 = x20i - x3i;
        // complex block of 2
        const V x22r = io.re(22);
        const V x5r = io.re(5);
        const V t44 = x22r + x5r;
        const V x22i = io.im(22);
        const V x5i = io.im(5);
        const V t45 = x22i + x5i;
        const V t46 = x22r - x5r;
        const V t47 = x22i - x5i;
        // complex block of 2
        const V x24r = io.re(24);
        const V x7r = io.re(7);
        const V t48 = x24r + x7r;
        const V x24i = io.im(24);
        const V x7i = io.im(7);
        const V t49 = x24i + x7i;
        const V t50 = x24r - x7r;
        const V t51 = x24i - x7i;
        // complex block of 2
        const V x26r = io.re(26);
        const V x9r = io.re(9);
        const V t52 = x26r + x9r;
        const V x26i = io.im(26);
        const V x9i = io.im(9);
        const V t53 = x26i + x9i;
        const V t54 = x26r - x9r;
        const V t55 = x26i - x9i;
        // complex block of 2
        const V x28r = io.re(28);
        const V x11r = io.re(11);
        const V t56 = x28r + x11r;
        const V x28i = io.im(28);
        const V x11i = io.im(11);
        const V t57 = x28i + x11i;
        const V t58 = x28r - x11r;
        const V t59 = x28i - x11i;
        // complex block of 2
        const V x30r = io.re(30);
        const V x13r = io.re(13);
        const V t60 = x30r + x13r;
        const V x30i = io.im(30);
        const V x13i = io.im(13);
        const V t61 = x30i + x13i;
        const V t62 = x30r - x13r;
        const V t63 = x30i - x13i;
        // complex block of 2
        const V x32r = io.re(32);
        const V x15r = io.re(15);
        const V t64 = x32r + x15r;
        const V x32i = io.im(32);
        const V x15i = io.im(15);
        const V t65 = x32i + x15i;
        const V t66 = x32r - x15r;
        const V t67 = x32i - x15i;
        // real block of 2
        const V t68 = t4 + t64;
        const V t69 = t4 - t64;
        // real block of 2
        const V t70 = t52 + t16;
        const V t71 = t52 - t16;
        // real block of 2
        const V t72 = t68 + t70;
        const V t73 = t68 - t70;
        // real block of 2
        const V t74 = t12 + t56;
        const V t75 = t12 - t56;
        // real block of 2
        const V t76 = t20 + t48;
        const V t77 = t20 - t48;
        // real block of 2
        const V t78 = t74 + t76;
        const V t79 = t74 - t76;
        // real block of 2
        const V t80 = t36 + t32;
        const V t81 = t36 - t32;
        // real block of 2
        const V t82 = t60 + t8;
        const V t83 = t60 - t8;
        // real block of 2
        const V t84 = t80 + t82;
        const V t85 = t80 - t82;
        // real block of 2
        const V t86 = t40 + t28;
        const V t87 = t40 - t28;
        // real block of 2
        const V t88 = t44 + t24;
        const V t89 = t44 - t24;
        // real block of 2
        const V t90 = t86 + t88;
        const V t91 = t86 - t88;
        // real block of 2
        const V t92 = t72 + t84;
        const V t93 = t72 - t84;
        // real block of 2
        const V t94 = t78 + t90;
        const V t95 = t78 - t90;
        // real block of 2
        const V t96 = t92 + t94;
        const V t97 = t92 - t94;
        // real block of 16
        const V t98 = c[0] * t77;
        const V t99 = c[1] * t75;
        const V t100 = t99 - t98;
        const V t101 = c[0] * t75;
        const V t102 = c[1] * t77;
        const V t103 = t102 + t101;
        const V t104 = t81 - t83;
        const V t105 = t83 + t81;
        const V t106 = c[2] * t104;
        const V t107 = c[2] * t105;
        const V t108 = c[1] * t89;
        const V t109 = c[0] * t87;
        const V t110 = t109 - t108;
        const V t111 = c[1] * t87;
        const V t112 = c[0] * t89;
        const V t113 = t112 + t111;
        // complex block of 2
        const V t114 = t69 + t106;
        const V t115 = t71 + t107;
        const V t116 = t69 - t106;
        const V t117 = t107 - t71;
        // complex block of 2
        const V t118 = t100 + t110;
        const V t119 = t103 + t113;
        const V t120 = t100 - t110;
        const V t121 = t113 - t103;
        // complex block of 2
        const V t122 = t114 + t118;
        const V t123 = t115 + t119;
        const V t124 = t114 - t118;
        const V t125 = t119 - t115;
        // complex block of 2
        const V t126 = t116 + t121;
        const V t127 = t117 - t120;
        const V t128 = t116 - t121;
        const V t129 = t117 + t120;
        // skew block of 4
        const V t130 = t79 - t91;
        const V t131 = c[2] * t130;
        const V t132 = t79 + t91;
        const V t133 = c[2] * t132;
        const V t134 = t133 - t85;
        const V t135 = t73 + t131;
        const V t136 = t85 + t133;
        const V t137 = t73 - t131;
        // real block of 2
        const V t138 = t5 + t65;
        const V t139 = t5 - t65;
        // real block of 2
        const V t140 = t53 + t17;
        const V t141 = t53 - t17;
        // real block of 2
        const V t142 = t138 + t140;
        const V t143 = t138 - t140;
        // real block of 2
        const V t144 = t13 + t57;
        const V t145 = t13 - t57;
        // real block of 2
        const V t146 = t21 + t49;
        const V t147 = t21 - t49;
        // real block of 2
        const V t148 = t144 + t146;
        const V t149 = t144 - t146;
        // real block of 2
        const V t150 = t37 + t33;
        const V t151 = t37 - t33;
        // real block of 2
        const V t152 = t61 + t9;
        const V t153 = t61 - t9;
        // real block of 2
        const V t154 = t150 + t152;
        const V t155 = t150 - t152;
        // real block of 2
        const V t156 = t41 + t29;
        const V t157 = t41 - t29;
        // real block of 2
        const V t158 = t45 + t25;
        const V t159 = t45 - t25;
        // real block of 2
        const V t160 = t156 + t158;
        const V t161 = t156 - t158;
        // real block of 2
        const V t162 = t142 + t154;
        const V t163 = t142 - t154;
        // real block of 2
        const V t164 = t148 + t160;
        const V t165 = t148 - t160;
        // real block of 2
        const V t166 = t162 + t164;
        const V t167 = t162 - t164;
        // real block of 16
        const V t168 = c[0] * t147;
        const V t169 = c[1] * t145;
        const V t170 = t169 - t168;
        const V t171 = c[0] * t145;
        const V t172 = c[1] * t147;
        const V t173 = t172 + t171;
        const V t174 = t151 - t153;
        const V t175 = t153 + t151;
        const V t176 = c[2] * t174;
        const V t177 = c[2] * t175;
        const V t178 = c[1] * t159;
        const V t179 = c[0] * t157;
        const V t180 = t179 - t178;
        const V t181 = c[1] * t157;
        const V t182 = c[0] * t159;
        const V t183 = t182 + t181;
        // complex block of 2
        const V t184 = t139 + t176;
        const V t185 = t141 + t177;
        const V t186 = t139 - t176;
        const V t187 = t177 - t141;
        // complex block of 2
        const V t188 = t170 + t180;
        const V t189 = t173 + t183;
        const V t190 = t170 - t180;
        const V t191 = t183 - t173;
        // complex block of 2
        const V t192 = t184 + t188;
        const V t193 = t185 + t189;
        const V t194 = t184 - t188;
        const V t195 = t189 - t185;
        // complex block of 2
        const V t196 = t186 + t191;
        const V t197 = t187 - t190;
        const V t198 = t186 - t191;
        const V t199 = t187 + t190;
        // skew block of 4
        const V t200 = t149 - t161;
        const V t201 = c[2] * t200;
        const V t202 = t149 + t161;
        const V t203 = c[2] * t202;
        const V t204 = t203 - t155;
        const V t205 = t143 + t201;
        const V t206 = t155 + t203;
        const V t207 = t143 - t201;
        // complex block of 17, multiplier 2
        const V t208 = t0 + t96;
        io.re(0, t208);
        const V t209 = t1 + t166;
        io.im(0, t209);
        const V t210 = c[17] * t96;
        const V t211 = t0 - t210;
        const V t212 = c[17] * t166;
        const V t213 = t1 - t212;
        const V t214 = c[3] * t193;
        const V t215 = c[4] * t192;
        const V t216 = t215 + t214;
        const V t217 = c[3] * t192;
        const V t218 = c[4] * t193;
        const V t219 = t217 - t218;
        const V t220 = c[3] * t123;
        const V t221 = c[4] * t122;
        const V t222 = t221 + t220;
        const V t223 = c[3] * t122;
        const V t224 = c[4] * t123;
        const V t225 = t224 - t223;
        const V t226 = c[5] * t136;
        const V t227 = c[6] * t135;
        const V t228 = t227 + t226;
        const V t229 = c[5] * t135;
        const V t230 = c[6] * t136;
        const V t231 = t229 - t230;
        const V t232 = c[5] * t206;
        const V t233 = c[6] * t205;
        const V t234 = t233 + t232;
        const V t235 = c[5] * t205;
        const V t236 = c[6] * t206;
        const V t237 = t235 - t236;
        const V t238 = c[7] * t199;
        const V t239 = c[8] * t198;
        const V t240 = t238 - t239;
        const V t241 = c[7] * t198;
        const V t242 = c[8] * t199;
        const V t243 = t242 + t241;
        const V t244 = c[7] * t129;
        const V t245 = c[8] * t128;
        const V t246 = t245 - t244;
        const V t247 = c[7] * t128;
        const V t248 = c[8] * t129;
        const V t249 = t248 + t247;
        const V t250 = c[9] * t95;
        const V t251 = c[10] * t93;
        const V t252 = t251 + t250;
        const V t253 = c[9] * t93;
        const V t254 = c[10] * t95;
        const V t255 = t254 - t253;
        const V t256 = c[9] * t165;
        const V t257 = c[10] * t163;
        const V t258 = t257 + t256;
        const V t259 = c[9] * t163;
        const V t260 = c[10] * t165;
        const V t261 = t260 - t259;
        const V t262 = c[11] * t197;
        const V t263 = c[12] * t196;
        const V t264 = t263 - t262;
        const V t265 = c[11] * t196;
        const V t266 = c[12] * t197;
        const V t267 = t266 + t265;
        const V t268 = c[11] * t127;
        const V t269 = c[12] * t126;
        const V t270 = t268 - t269;
        const V t271 = c[11] * t126;
        const V t272 = c[12] * t127;
        const V t273 = t272 + t271;
        const V t274 = c[13] * t134;
        const V t275 = c[14] * t137;
        const V t276 = t275 - t274;
        const V t277 = c[13] * t137;
        const V t278 = c[14] * t134;
        const V t279 = t278 + t277;
        const V t280 = c[13] * t204;
        const V t281 = c[14] * t207;
        const V t282 = t281 - t280;
        const V t283 = c[13] * t207;
        const V t284 = c[14] * t204;
        const V t285 = t284 + t283;
        const V t286 = c[15] * t195;
        const V t287 = c[16] * t194;
        const V t288 = t287 + t286;
        const V t289 = c[15] * t194;
        const V t290 = c[16] * t195;
        const V t291 = t289 - t290;
        const V t292 = c[15] * t125;
        const V t293 = c[16] * t124;
        const V t294 = t293 + t292;
        const V t295 = c[15] * t124;
        const V t296 = c[16] * t125;
        const V t297 = t296 - t295;
        const V t298 = c[18] * t97;
        const V t299 = c[18] * t167;
        // spectrum block of 2
        const V t300 = t211 + t298;
        const V t301 = t211 - t298;
        // spectrum block of 2
        const V t302 = t300 - t252;
        const V t303 = t300 + t252;
        // spectrum block of 2
        const V t304 = t301 - t255;
        const V t305 = t301 + t255;
        // complex block of 2
        const V t306 = t219 - t291;
        const V t307 = t216 + t288;
        const V t308 = t219 + t291;
        const V t309 = t216 - t288;
        // complex block of 2
        const V t310 = t267 - t243;
        const V t311 = t264 + t240;
        const V t312 = t267 + t243;
        const V t313 = t264 - t240;
        // complex block of 2
        const V t314 = t306 + t310;
        const V t315 = t307 + t311;
        const V t316 = t306 - t310;
        const V t317 = t307 - t311;
        // complex block of 2
        const V t318 = t308 + t313;
        const V t319 = t309 - t312;
        const V t320 = t308 - t313;
        const V t321 = t309 + t312;
        // spectrum block of 16
        const V t322 = c[0] * t318;
        const V t323 = c[1] * t319;
        const V t324 = t323 - t322;
        const V t325 = c[0] * t319;
        const V t326 = c[1] * t318;
        const V t327 = t326 + t325;
        const V t328 = t317 + t316;
        const V t329 = t316 - t317;
        const V t330 = c[2] * t328;
        const V t331 = c[2] * t329;
        const V t332 = c[1] * t320;
        const V t333 = c[0] * t321;
        const V t334 = t333 - t332;
        const V t335 = c[1] * t321;
        const V t336 = c[0] * t320;
        const V t337 = t336 + t335;
        // mirrored skew block of 4
        const V t338 = t228 - t276;
        const V t339 = c[2] * t338;
        const V t340 = t231 - t279;
        const V t341 = c[2] * t340;
        const V t342 = t228 + t276;
        const V t343 = t339 - t341;
        const V t344 = t231 + t279;
        const V t345 = t339 + t341;
        // spectrum block of 2
        const V t346 = t302 + t342;
        const V t347 = t302 - t342;
        // spectrum block of 2
        const V t348 = t346 + t315;
        io.re(2, t348);
        const V t349 = t346 - t315;
        io.re(32, t349);
        // spectrum block of 2
        const V t350 = t347 - t314;
        io.re(8, t350);
        const V t351 = t347 + t314;
        io.re(26, t351);
        // spectrum block of 2
        const V t352 = t304 + t343;
        const V t353 = t304 - t343;
        // spectrum block of 2
        const V t354 = t352 + t324;
        io.re(12, t354);
        const V t355 = t352 - t324;
        io.re(22, t355);
        // spectrum block of 2
        const V t356 = t353 - t327;
        io.re(14, t356);
        const V t357 = t353 + t327;
        io.re(20, t357);
        // spectrum block of 2
        const V t358 = t303 - t344;
        const V t359 = t303 + t344;
        // spectrum block of 2
        const V t360 = t358 - t331;
        io.re(4, t360);
        const V t361 = t358 + t331;
        io.re(30, t361);
        // spectrum block of 2
        const V t362 = t359 - t330;
        io.re(16, t362);
        const V t363 = t359 + t330;
        io.re(18, t363);
        // spectrum block of 2
        const V t364 = t305 - t345;
        const V t365 = t305 + t345;
        // spectrum block of 2
        const V t366 = t364 + t334;
        io.re(24, t366);
        const V t367 = t364 - t334;
        io.re(10, t367);
        // spectrum block of 2
        const V t368 = t365 - t337;
        io.re(28, t368);
        const V t369 = t365 + t337;
        io.re(6, t369);
        // spectrum block of 2
        const V t370 = t213 + t299;
        const V t371 = t213 - t299;
        // spectrum block of 2
        const V t372 = t370 - t258;
        const V t373 = t370 + t258;
        // spectrum block of 2
        const V t374 = t371 - t261;
        const V t375 = t371 + t261;
        // complex block of 2
        const V t376 = t225 - t297;
        const V t377 = t222 + t294;
        const V t378 = t225 + t297;
        const V t379 = t294 - t222;
        // complex block of 2
        const V t380 = t249 - t273;
        const V t381 = t270 + t246;
        const V t382 = t273 + t249;
        const V t383 = t270 - t246;
        // complex block of 2
        const V t384 = t376 + t380;
        const V t385 = t381 - t377;
        const V t386 = t376 - t380;
        const V t387 = t377 + t381;
        // complex block of 2
        const V t388 = t378 + t383;
        const V t389 = t379 + t382;
        const V t390 = t378 - t383;
        const V t391 = t379 - t382;
        // spectrum block of 16
        const V t392 = c[0] * t388;
        const V t393 = c[1] * t389;
        const V t394 = t393 - t392;
        const V t395 = c[0] * t389;
        const V t396 = c[1] * t388;
        const V t397 = t396 + t395;
        const V t398 = t386 - t387;
        const V t399 = t386 + t387;
        const V t400 = c[2] * t398;
        const V t401 = c[2] * t399;
        const V t402 = c[1] * t390;
        const V t403 = c[0] * t391;
        const V t404 = t403 - t402;
        const V t405 = c[1] * t391;
        const V t406 = c[0] * t390;
        const V t407 = t406 + t405;
        // mirrored skew block of 4
        const V t408 = t234 - t282;
        const V t409 = c[2] * t408;
        const V t410 = t237 - t285;
        const V t411 = c[2] * t410;
        const V t412 = t234 + t282;
        const V t413 = t409 - t411;
        const V t414 = t237 + t285;
        const V t415 = t409 + t411;
        // spectrum block of 2
        const V t416 = t372 + t412;
        const V t417 = t372 - t412;
        // spectrum block of 2
        const V t418 = t416 + t385;
        io.im(2, t418);
        const V t419 = t416 - t385;
        io.im(32, t419);
        // spectrum block of 2
        const V t420 = t417 - t384;
        io.im(8, t420);
        const V t421 = t417 + t384;
        io.im(26, t421);
        // spectrum block of 2
        const V t422 = t374 + t413;
        const V t423 = t374 - t413;
        // spectrum block of 2
        const V t424 = t422 + t394;
        io.im(12, t424);
        const V t425 = t422 - t394;
        io.im(22, t425);
        // spectrum block of 2
        const V t426 = t423 - t397;
        io.im(14, t426);
        const V t427 = t423 + t397;
        io.im(20, t427);
        // spectrum block of 2
        const V t428 = t373 - t414;
        const V t429 = t373 + t414;
        // spectrum block of 2
        const V t430 = t428 - t401;
        io.im(4, t430);
        const V t431 = t428 + t401;
        io.im(30, t431);
        // spectrum block of 2
        const V t432 = t429 - t400;
        io.im(16, t432);
        const V t433 = t429 + t400;
        io.im(18, t433);
        // spectrum block of 2
        const V t434 = t375 - t415;
        const V t435 = t375 + t415;
        // spectrum block of 2
        const V t436 = t434 + t404;
        io.im(24, t436);
        const V t437 = t434 - t404;
        io.im(10, t437);
        // spectrum block of 2
        const V t438 = t435 - t407;
        io.im(28, t438);
        const V t439 = t435 + t407;
        io.im(6, t439);
        // real block of 2
        const V t440 = t6 + t66;
        const V t441 = t6 - t66;
        // real block of 2
        const V t442 = t54 + t18;
        const V t443 = t54 - t18;
        // real block of 2
        const V t444 = t440 + t442;
        const V t445 = t440 - t442;
        // real block of 2
        const V t446 = t14 + t58;
        const V t447 = t14 - t58;
        // real block of 2
        const V t448 = t22 + t50;
        const V t449 = t22 - t50;
        // real block of 2
        const V t450 = t446 + t448;
        const V t451 = t446 - t448;
        // real block of 2
        const V t452 = t38 + t34;
        const V t453 = t38 - t34;
        // real block of 2
        const V t454 = t62 + t10;
        const V t455 = t62 - t10;
        // real block of 2
        const V t456 = t452 + t454;
        const V t457 = t452 - t454;
        // real block of 2
        const V t458 = t42 + t30;
        const V t459 = t42 - t30;
        // real block of 2
        const V t460 = t46 + t26;
        const V t461 = t46 - t26;
        // real block of 2
        const V t462 = t458 + t460;
        const V t463 = t458 - t460;
        // real block of 2
        const V t464 = t444 + t456;
        const V t465 = t444 - t456;
        // real block of 2
        const V t466 = t450 + t462;
        const V t467 = t450 - t462;
        // real block of 2
        const V t468 = t464 + t466;
        const V t469 = t464 - t466;
        // real block of 16
        const V t470 = c[0] * t449;
        const V t471 = c[1] * t447;
        const V t472 = t471 - t470;
        const V t473 = c[0] * t447;
        const V t474 = c[1] * t449;
        const V t475 = t474 + t473;
        const V t476 = t453 - t455;
        const V t477 = t455 + t453;
        const V t478 = c[2] * t476;
        const V t479 = c[2] * t477;
        const V t480 = c[1] * t461;
        const V t481 = c[0] * t459;
        const V t482 = t481 - t480;
        const V t483 = c[1] * t459;
        const V t484 = c[0] * t461;
        const V t485 = t484 + t483;
        // complex block of 2
        const V t486 = t441 + t478;
        const V t487 = t443 + t479;
        const V t488 = t441 - t478;
        const V t489 = t479 - t443;
        // complex block of 2
        const V t490 = t472 + t482;
        const V t491 = t475 + t485;
        const V t492 = t472 - t482;
        const V t493 = t485 - t475;
        // complex block of 2
        const V t494 = t486 + t490;
        const V t495 = t487 + t491;
        const V t496 = t486 - t490;
        const V t497 = t491 - t487;
        // complex block of 2
        const V t498 = t488 + t493;
        const V t499 = t489 - t492;
        const V t500 = t488 - t493;
        const V t501 = t489 + t492;
        // skew block of 4
        const V t502 = t451 - t463;
        const V t503 = c[2] * t502;
        const V t504 = t451 + t463;
        const V t505 = c[2] * t504;
        const V t506 = t505 - t457;
        const V t507 = t445 + t503;
        const V t508 = t457 + t505;
        const V t509 = t445 - t503;
        // real block of 2
        const V t510 = t7 + t67;
        const V t511 = t7 - t67;
        // real block of 2
        const V t512 = t55 + t19;
        const V t513 = t55 - t19;
        // real block of 2
        const V t514 = t510 + t512;
        const V t515 = t510 - t512;
        // real block of 2
        const V t516 = t15 + t59;
        const V t517 = t15 - t59;
        // real block of 2
        const V t518 = t23 + t51;
        const V t519 = t23 - t51;
        // real block of 2
        const V t520 = t516 + t518;
        const V t521 = t516 - t518;
        // real block of 2
        const V t522 = t39 + t35;
        const V t523 = t39 - t35;
        // real block of 2
        const V t524 = t63 + t11;
        const V t525 = t63 - t11;
        // real block of 2
        const V t526 = t522 + t524;
        const V t527 = t522 - t524;
        // real block of 2
        const V t528 = t43 + t31;
        const V t529 = t43 - t31;
        // real block of 2
        const V t530 = t47 + t27;
        const V t531 = t47 - t27;
        // real block of 2
        const V t532 = t528 + t530;
        const V t533 = t528 - t530;
        // real block of 2
        const V t534 = t514 + t526;
        const V t535 = t514 - t526;
        // real block of 2
        const V t536 = t520 + t532;
        const V t537 = t520 - t532;
        // real block of 2
        const V t538 = t534 + t536;
        const V t539 = t534 - t536;
        // real block of 16
        const V t540 = c[0] * t519;
        const V t541 = c[1] * t517;
        const V t542 = t541 - t540;
        const V t543 = c[0] * t517;
        const V t544 = c[1] * t519;
        const V t545 = t544 + t543;
        const V t546 = t523 - t525;
        const V t547 = t525 + t523;
        const V t548 = c[2] * t546;
        const V t549 = c[2] * t547;
        const V t550 = c[1] * t531;
        const V t551 = c[0] * t529;
        const V t552 = t551 - t550;
        const V t553 = c[1] * t529;
        const V t554 = c[0] * t531;
        const V t555 = t554 + t553;
        // complex block of 2
        const V t556 = t511 + t548;
        const V t557 = t513 + t549;
        const V t558 = t511 - t548;
        const V t559 = t549 - t513;
        // complex block of 2
        const V t560 = t542 + t552;
        const V t561 = t545 + t555;
        const V t562 = t542 - t552;
        const V t563 = t555 - t545;
        // complex block of 2
        const V t564 = t556 + t560;
        const V t565 = t557 + t561;
        const V t566 = t556 - t560;
        const V t567 = t561 - t557;
        // complex block of 2
        const V t568 = t558 + t563;
        const V t569 = t559 - t562;
        const V t570 = t558 - t563;
        const V t571 = t559 + t562;
        // skew block of 4
        const V t572 = t521 - t533;
        const V t573 = c[2] * t572;
        const V t574 = t521 + t533;
        const V t575 = c[2] * t574;
        const V t576 = t575 - t527;
        const V t577 = t515 + t573;
        const V t578 = t527 + t575;
        const V t579 = t515 - t573;
        // complex block of 17, multiplier 2
        const V t580 = t2 + t468;
        io.re(17, t580);
        const V t581 = t3 + t538;
        io.im(17, t581);
        const V t582 = c[17] * t468;
        const V t583 = t2 - t582;
        const V t584 = c[17] * t538;
        const V t585 = t3 - t584;
        const V t586 = c[3] * t565;
        const V t587 = c[4] * t564;
        const V t588 = t587 + t586;
        const V t589 = c[3] * t564;
        const V t590 = c[4] * t565;
        const V t591 = t589 - t590;
        const V t592 = c[3] * t495;
        const V t593 = c[4] * t494;
        const V t594 = t593 + t592;
        const V t595 = c[3] * t494;
        const V t596 = c[4] * t495;
        const V t597 = t596 - t595;
        const V t598 = c[5] * t508;
        const V t599 = c[6] * t507;
        const V t600 = t599 + t598;
        const V t601 = c[5] * t507;
        const V t602 = c[6] * t508;
        const V t603 = t601 - t602;
        const V t604 = c[5] * t578;
        const V t605 = c[6] * t577;
        const V t606 = t605 + t604;
        const V t607 = c[5] * t577;
        const V t608 = c[6] * t578;
        const V t609 = t607 - t608;
        const V t610 = c[7] * t571;
        const V t611 = c[8] * t570;
        const V t612 = t610 - t611;
        const V t613 = c[7] * t570;
        const V t614 = c[8] * t571;
        const V t615 = t614 + t613;
        const V t616 = c[7] * t501;
        const V t617 = c[8] * t500;
        const V t618 = t617 - t616;
        const V t619 = c[7] * t500;
        const V t620 = c[8] * t501;
        const V t621 = t620 + t619;
        const V t622 = c[9] * t467;
        const V t623 = c[10] * t465;
        const V t624 = t623 + t622;
        const V t625 = c[9] * t465;
        const V t626 = c[10] * t467;
        const V t627 = t626 - t625;
        const V t628 = c[9] * t537;
        const V t629 = c[10] * t535;
        const V t630 = t629 + t628;
        const V t631 = c[9] * t535;
        const V t632 = c[10] * t537;
        const V t633 = t632 - t631;
        const V t634 = c[11] * t569;
        const V t635 = c[12] * t568;
        const V t636 = t635 - t634;
        const V t637 = c[11] * t568;
        const V t638 = c[12] * t569;
        const V t639 = t638 + t637;
        const V t640 = c[11] * t499;
        const V t641 = c[12] * t498;
        const V t642 = t640 - t641;
        const V t643 = c[11] * t498;
        const V t644 = c[12] * t499;
        const V t645 = t644 + t643;
        const V t646 = c[13] * t506;
        const V t647 = c[14] * t509;
        const V t648 = t647 - t646;
        const V t649 = c[13] * t509;
        const V t650 = c[14] * t506;
        const V t651 = t650 + t649;
        const V t652 = c[13] * t576;
        const V t653 = c[14] * t579;
        const V t654 = t653 - t652;
        const V t655 = c[13] * t579;
        const V t656 = c[14] * t576;
        const V t657 = t656 + t655;
        const V t658 = c[15] * t567;
        const V t659 = c[16] * t566;
        const V t660 = t659 + t658;
        const V t661 = c[15] * t566;
        const V t662 = c[16] * t567;
        const V t663 = t661 - t662;
        const V t664 = c[15] * t497;
        const V t665 = c[16] * t496;
        const V t666 = t665 + t664;
        const V t667 = c[15] * t496;
        const V t668 = c[16] * t497;
        const V t669 = t668 - t667;
        const V t670 = c[18] * t469;
        const V t671 = c[18] * t539;
        // spectrum block of 2
        const V t672 = t583 + t670;
        const V t673 = t583 - t670;
        // spectrum block of 2
        const V t674 = t672 - t624;
        const V t675 = t672 + t624;
        // spectrum block of 2
        const V t676 = t673 - t627;
        const V t677 = t673 + t627;
        // complex block of 2
        const V t678 = t591 - t663;
        const V t679 = t588 + t660;
        const V t680 = t591 + t663;
        const V t681 = t588 - t660;
        // complex block of 2
        const V t682 = t639 - t615;
        const V t683 = t636 + t612;
        const V t684 = t639 + t615;
        const V t685 = t636 - t612;
        // complex block of 2
        const V t686 = t678 + t682;
        const V t687 = t679 + t683;
        const V t688 = t678 - t682;
        const V t689 = t679 - t683;
        // complex block of 2
        const V t690 = t680 + t685;
        const V t691 = t681 - t684;
        const V t692 = t680 - t685;
        const V t693 = t681 + t684;
        // spectrum block of 16
        const V t694 = c[0] * t690;
        const V t695 = c[1] * t691;
        const V t696 = t695 - t694;
        const V t697 = c[0] * t691;
        const V t698 = c[1] * t690;
        const V t699 = t698 + t697;
        const V t700 = t689 + t688;
        const V t701 = t688 - t689;
        const V t702 = c[2] * t700;
        const V t703 = c[2] * t701;
        const V t704 = c[1] * t692;
        const V t705 = c[0] * t693;
        const V t706 = t705 - t704;
        const V t707 = c[1] * t693;
        const V t708 = c[0] * t692;
        const V t709 = t708 + t707;
        // mirrored skew block of 4
        const V t710 = t600 - t648;
        const V t711 = c[2] * t710;
        const V t712 = t603 - t651;
        const V t713 = c[2] * t712;
        const V t714 = t600 + t648;
        const V t715 = t711 - t713;
        const V t716 = t603 + t651;
        const V t717 = t711 + t713;
        // spectrum block of 2
        const V t718 = t674 + t714;
        const V t719 = t674 - t714;
        // spectrum block of 2
        const V t720 = t718 + t687;
        io.re(19, t720);
        const V t721 = t718 - t687;
        io.re(15, t721);
        // spectrum block of 2
        const V t722 = t719 - t686;
        io.re(25, t722);
        const V t723 = t719 + t686;
        io.re(9, t723);
        // spectrum block of 2
        const V t724 = t676 + t715;
        const V t725 = t676 - t715;
        // spectrum block of 2
        const V t726 = t724 + t696;
        io.re(29, t726);
        const V t727 = t724 - t696;
        io.re(5, t727);
        // spectrum block of 2
        const V t728 = t725 - t699;
        io.re(31, t728);
        const V t729 = t725 + t699;
        io.re(3, t729);
        // spectrum block of 2
        const V t730 = t675 - t716;
        const V t731 = t675 + t716;
        // spectrum block of 2
        const V t732 = t730 - t703;
        io.re(21, t732);
        const V t733 = t730 + t703;
        io.re(13, t733);
        // spectrum block of 2
        const V t734 = t731 - t702;
        io.re(33, t734);
        const V t735 = t731 + t702;
        io.re(1, t735);
        // spectrum block of 2
        const V t736 = t677 - t717;
        const V t737 = t677 + t717;
        // spectrum block of 2
        const V t738 = t736 + t706;
        io.re(7, t738);
        const V t739 = t736 - t706;
        io.re(27, t739);
        // spectrum block of 2
        const V t740 = t737 - t709;
        io.re(11, t740);
        const V t741 = t737 + t709;
        io.re(23, t741);
        // spectrum block of 2
        const V t742 = t585 + t671;
        const V t743 = t585 - t671;
        // spectrum block of 2
        const V t744 = t742 - t630;
        const V t745 = t742 + t630;
        // spectrum block of 2
        const V t746 = t743 - t633;
        const V t747 = t743 + t633;
        // complex block of 2
        const V t748 = t597 - t669;
        const V t749 = t594 + t666;
        const V t750 = t597 + t669;
        const V t751 = t666 - t594;
        // complex block of 2
        const V t752 = t621 - t645;
        const V t753 = t642 + t618;
        const V t754 = t645 + t621;
        const V t755 = t642 - t618;
        // complex block of 2
        const V t756 = t748 + t752;
        const V t757 = t753 - t749;
        const V t758 = t748 - t752;
        const V t759 = t749 + t753;
        // complex block of 2
        const V t760 = t750 + t755;
        const V t761 = t751 + t754;
        const V t762 = t750 - t755;
        const V t763 = t751 - t754;
        // spectrum block of 16
        const V t764 = c[0] * t760;
        const V t765 = c[1] * t761;
        const V t766 = t765 - t764;
        const V t767 = c[0] * t761;
        const V t768 = c[1] * t760;
        const V t769 = t768 + t767;
        const V t770 = t758 - t759;
        const V t771 = t758 + t759;
        const V t772 = c[2] * t770;
        const V t773 = c[2] * t771;
        const V t774 = c[1] * t762;
        const V t775 = c[0] * t763;
        const V t776 = t775 - t774;
        const V t777 = c[1] * t763;
        const V t778 = c[0] * t762;
        const V t779 = t778 + t777;
        // mirrored skew block of 4
        const V t780 = t606 - t654;
        const V t781 = c[2] * t780;
        const V t782 = t609 - t657;
        const V t783 = c[2] * t782;
        const V t784 = t606 + t654;
        const V t785 = t781 - t783;
        const V t786 = t609 + t657;
        const V t787 = t781 + t783;
        // spectrum block of 2
        const V t788 = t744 + t784;
        const V t789 = t744 - t784;
        // spectrum block of 2
        const V t790 = t788 + t757;
        io.im(19, t790);
        const V t791 = t788 - t757;
        io.im(15, t791);
        // spectrum block of 2
        const V t792 = t789 - t756;
        io.im(25, t792);
        const V t793 = t789 + t756;
        io.im(9, t793);
        // spectrum block of 2
        const V t794 = t746 + t785;
        const V t795 = t746 - t785;
        // spectrum block of 2
        const V t796 = t794 + t766;
        io.im(29, t796);
        const V t797 = t794 - t766;
        io.im(5, t797);
        // spectrum block of 2
        const V t798 = t795 - t769;
        io.im(31, t798);
        const V t799 = t795 + t769;
        io.im(3, t799);
        // spectrum block of 2
        const V t800 = t745 - t786;
        const V t801 = t745 + t786;
        // spectrum block of 2
        const V t802 = t800 - t773;
        io.im(21, t802);
        const V t803 = t800 + t773;
        io.im(13, t803);
        // spectrum block of 2
        const V t804 = t801 - t772;
        io.im(33, t804);
        const V t805 = t801 + t772;
        io.im(1, t805);
        // spectrum block of 2
        const V t806 = t747 - t787;
        const V t807 = t747 + t787;
        // spectrum block of 2
        const V t808 = t806 + t776;
        io.im(7, t808);
        const V t809 = t806 - t776;
        io.im(27, t809);
        // spectrum block of 2
        const V t810 = t807 - t779;
        io.im(11, t810);
        const V t811 = t807 + t779;
        io.im(23, t811);
    }
};

}  // namespace zulg
