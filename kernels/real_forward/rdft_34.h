// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 34.
// Forward DFT of 34 real points, prime-factor 2, 17.
// 133 additions, 133 subtractions, 108 multiplications (142 with `scale`); 8 outputs negated; 19 constants; 36 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<34> {
    static constexpr int steps = 408;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.506476062234015,  // c[3]: -Q[1] of 17
        0.09543059459065593,  // c[4]: P[1] of 17
        0.3809911760447736,  // c[5]: Q[2] of 17
        0.347088927763506,  // c[6]: P[2] of 17
        0.4154752217498508,  // c[7]: Q[3] of 17
        0.3049677689722511,  // c[8]: P[3] of 17
        0.40623178445333147,  // c[9]: -Q[4] of 17
        0.31717619283272513,  // c[10]: -P[4] of 17
        0.27255963351038787,  // c[11]: -Q[5] of 17
        0.4374199883186445,  // c[12]: P[5] of 17
        0.039110758925753275,  // c[13]: -Q[6] of 17
        0.5139020806887744,  // c[14]: P[6] of 17
        0.3101351696520051,  // c[15]: -Q[7] of 17
        0.4116323317536197,  // c[16]: P[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x17 = io.in(17);
        const V t0 = x0 + x17;
        const V t1 = x0 - x17;
        // real block of 2
        const V x2 = io.in(2);
        const V x19 = io.in(19);
        const V t2 = x2 + x19;
        const V t3 = x2 - x19;
        // real block of 2
        const V x4 = io.in(4);
        const V x21 = io.in(21);
        const V t4 = x4 + x21;
        const V t5 = x4 - x21;
        // real block of 2
        const V x6 = io.in(6);
        const V x23 = io.in(23);
        const V t6 = x6 + x23;
        const V t7 = x6 - x23;
        // real block of 2
        const V x8 = io.in(8);
        const V x25 = io.in(25);
        const V t8 = x8 + x25;
        const V t9 = x8 - x25;
        // real block of 2
        const V x10 = io.in(10);
        const V x27 = io.in(27);
        const V t10 = x10 + x27;
        const V t11 = x10 - x27;
        // real block of 2
        const V x12 = io.in(12);
        const V x29 = io.in(29);
        const V t12 = x12 + x29;
        const V t13 = x12 - x29;
        // real block of 2
        const V x14 = io.in(14);
        const V x31 = io.in(31);
        const V t14 = x14 + x31;
        const V t15 = x14 - x31;
        // real block of 2
        const V x16 = io.in(16);
        const V x33 = io.in(33);
        const V t16 = x16 + x33;
        const V t17 = x16 - x33;
        // real block of 2
        const V x18 = io.in(18);
        const V x1 = io.in(1);
        const V t18 = x18 + x1;
        const V t19 = x18 - x1;
        // real block of 2
        const V x20 = io.in(20);
        const V x3 = io.in(3);
        const V t20 = x20 + x3;
        const V t21 = x20 - x3;
        // real block of 2
        const V x22 = io.in(22);
        const V x5 = io.in(5);
        const V t22 = x22 + x5;
        const V t23 = x22 - x5;
        // real block of 2
        const V x24 = io.in(24);
        const V x7 = io.in(7);
        const V t24 = x24 + x7;
        const V t25 = x24 - x7;
        // real block of 2
        const V x26 = io.in(26);
        const V x9 = io.in(9);
        const V t26 = x26 + x9;
        const V t27 = x26 - x9;
        // real block of 2
        const V x28 = io.in(28);
        const V x11 = io.in(11);
        const V t28 = x28 + x11;
        const V t29 = x28 - x11;
        // real block of 2
        const V x30 = io.in(30);
        const V x13 = io.in(13);
        const V t30 = x30 + x13;
        const V t31 = x30 - x13;
        // real block of 2
        const V x32 = io.in(32);
        const V x15 = io.in(15);
        const V t32 = x32 + x15;
        const V t33 = x32 - x15;
        // real block of 2
        const V t34 = t2 + t32;
        const V t35 = t2 - t32;
        // real block of 2
        const V t36 = t26 + t8;
        const V t37 = t26 - t8;
        // real block of 2
        const V t38 = t34 + t36;
        const V t39 = t34 - t36;
        // real block of 2
        const V t40 = t6 + t28;
        const V t41 = t6 - t28;
        // real block of 2
        const V t42 = t10 + t24;
        const V t43 = t10 - t24;
        // real block of 2
        const V t44 = t40 + t42;
        const V t45 = t40 - t42;
        // real block of 2
        const V t46 = t18 + t16;
        const V t47 = t18 - t16;
        // real block of 2
        const V t48 = t30 + t4;
        const V t49 = t30 - t4;
        // real block of 2
        const V t50 = t46 + t48;
        const V t51 = t46 - t48;
        // real block of 2
        const V t52 = t20 + t14;
        const V t53 = t20 - t14;
        // real block of 2
        const V t54 = t22 + t12;
        const V t55 = t22 - t12;
        // real block of 2
        const V t56 = t52 + t54;
        const V t57 = t52 - t54;
        // real block of 2
        const V t58 = t38 + t50;
        const V t59 = t38 - t50;
        // real block of 2
        const V t60 = t44 + t56;
        const V t61 = t44 - t56;
        // real block of 2
        const V t62 = t58 + t60;
        const V t63 = t58 - t60;
        // real block of 16
        const V t64 = c[0] * t43;
        const V t65 = c[1] * t41;
        const V t66 = t65 - t64;
        const V t67 = c[0] * t41;
        const V t68 = c[1] * t43;
        const V t69 = t68 + t67;
        const V t70 = t47 - t49;
        const V t71 = t49 + t47;
        const V t72 = c[2] * t70;
        const V t73 = c[2] * t71;
        const V t74 = c[1] * t55;
        const V t75 = c[0] * t53;
        const V t76 = t75 - t74;
        const V t77 = c[1] * t53;
        const V t78 = c[0] * t55;
        const V t79 = t78 + t77;
        // complex block of 2
        const V t80 = t35 + t72;
        const V t81 = t37 + t73;
        const V t82 = t35 - t72;
        const V t83 = t73 - t37;
        // complex block of 2
        const V t84 = t66 + t76;
        const V t85 = t69 + t79;
        const V t86 = t66 - t76;
        const V t87 = t79 - t69;
        // complex block of 2
        const V t88 = t80 + t84;
        const V t89 = t81 + t85;
        const V t90 = t80 - t84;
        const V t91 = t85 - t81;
        // complex block of 2
        const V t92 = t82 + t87;
        const V t93 = t83 - t86;
        const V t94 = t82 - t87;
        const V t95 = t83 + t86;
        // skew block of 4
        const V t96 = t45 - t57;
        const V t97 = c[2] * t96;
        const V t98 = t45 + t57;
        const V t99 = c[2] * t98;
        const V t100 = t99 - t51;
        const V t101 = t39 + t97;
        const V t102 = t51 + t99;
        const V t103 = t39 - t97;
        // real block of 17, multiplier 2
        const V t104 = t0 + t62;
        io.re(0, t104);
        const V t105 = c[17] * t62;
        const V t106 = t0 - t105;
        const V t107 = c[3] * t89;
        const V t108 = c[4] * t88;
        const V t109 = t108 - t107;
        const V t110 = c[3] * t88;
        const V t111 = c[4] * t89;
        const V t112 = t111 + t110;
        const V t113 = c[5] * t102;
        const V t114 = c[6] * t101;
        const V t115 = t114 + t113;
        const V t116 = c[5] * t101;
        const V t117 = c[6] * t102;
        const V t118 = t116 - t117;
        const V t119 = c[7] * t95;
        const V t120 = c[8] * t94;
        const V t121 = t120 + t119;
        const V t122 = c[7] * t94;
        const V t123 = c[8] * t95;
        const V t124 = t122 - t123;
        const V t125 = c[9] * t61;
        const V t126 = c[10] * t59;
        const V t127 = t126 + t125;
        const V t128 = c[9] * t59;
        const V t129 = c[10] * t61;
        const V t130 = t129 - t128;
        const V t131 = c[11] * t93;
        const V t132 = c[12] * t92;
        const V t133 = t132 + t131;
        const V t134 = c[11] * t92;
        const V t135 = c[12] * t93;
        const V t136 = t135 - t134;
        const V t137 = c[13] * t100;
        const V t138 = c[14] * t103;
        const V t139 = t138 - t137;
        const V t140 = c[13] * t103;
        const V t141 = c[14] * t100;
        const V t142 = t141 + t140;
        const V t143 = c[15] * t91;
        const V t144 = c[16] * t90;
        const V t145 = t144 - t143;
        const V t146 = c[15] * t90;
        const V t147 = c[16] * t91;
        const V t148 = t147 + t146;
        const V t149 = c[18] * t63;
        // spectrum block of 2
        const V t150 = t106 + t149;
        const V t151 = t106 - t149;
        // spectrum block of 2
        const V t152 = t150 - t127;
        const V t153 = t150 + t127;
        // spectrum block of 2
        const V t154 = t151 - t130;
        const V t155 = t151 + t130;
        // mirrored skew block of 4
        const V t156 = t115 - t139;
        const V t157 = c[2] * t156;
        const V t158 = t118 - t142;
        const V t159 = c[2] * t158;
        const V t160 = t115 + t139;
        const V t161 = t157 - t159;
        const V t162 = t118 + t142;
        const V t163 = t157 + t159;
        // spectrum block of 2
        const V t164 = t152 + t160;
        io.re(2, t164);
        const V t165 = t152 - t160;
        io.re(8, t165);
        // spectrum block of 2
        const V t166 = t154 + t161;
        io.re(12, t166);
        const V t167 = t154 - t161;
        io.re(14, t167);
        // spectrum block of 2
        const V t168 = t153 - t162;
        io.re(4, t168);
        const V t169 = t153 + t162;
        io.re(16, t169);
        // spectrum block of 2
        const V t170 = t155 - t163;
        io.re(10, t170);
        const V t171 = t155 + t163;
        io.re(6, t171);
        // complex block of 2
        const V t172 = t145 - t109;
        const V t173 = t112 + t148;
        const V t174 = t109 + t145;
        const V t175 = t148 - t112;
        // complex block of 2
        const V t176 = t121 - t133;
        const V t177 = t136 + t124;
        const V t178 = t133 + t121;
        const V t179 = t136 - t124;
        // complex block of 2
        const V t180 = t172 + t176;
        io.minusIm(8, t180);
        const V t181 = t177 - t173;
        io.im(2, t181);
        const V t182 = t172 - t176;
        const V t183 = t173 + t177;
        // complex block of 2
        const V t184 = t179 - t174;
        const V t185 = t175 + t178;
        const V t186 = t174 + t179;
        const V t187 = t175 - t178;
        // mirrored skew block of 8
        const V t188 = c[0] * t184;
        const V t189 = c[1] * t185;
        const V t190 = t189 - t188;
        io.im(12, t190);
        const V t191 = c[0] * t185;
        const V t192 = c[1] * t184;
        const V t193 = t192 + t191;
        io.minusIm(14, t193);
        const V t194 = c[2] * t183;
        const V t195 = c[2] * t182;
        const V t196 = t195 - t194;
        io.minusIm(16, t196);
        const V t197 = t195 + t194;
        io.minusIm(4, t197);
        const V t198 = c[1] * t186;
        const V t199 = c[0] * t187;
        const V t200 = t199 + t198;
        io.minusIm(10, t200);
        const V t201 = c[1] * t187;
        const V t202 = c[0] * t186;
        const V t203 = t201 - t202;
        io.im(6, t203);
        // real block of 2
        const V t204 = t3 + t33;
        const V t205 = t3 - t33;
        // real block of 2
        const V t206 = t27 + t9;
        const V t207 = t27 - t9;
        // real block of 2
        const V t208 = t204 + t206;
        const V t209 = t204 - t206;
        // real block of 2
        const V t210 = t7 + t29;
        const V t211 = t7 - t29;
        // real block of 2
        const V t212 = t11 + t25;
        const V t213 = t11 - t25;
        // real block of 2
        const V t214 = t210 + t212;
        const V t215 = t210 - t212;
        // real block of 2
        const V t216 = t19 + t17;
        const V t217 = t19 - t17;
        // real block of 2
        const V t218 = t31 + t5;
        const V t219 = t31 - t5;
        // real block of 2
        const V t220 = t216 + t218;
        const V t221 = t216 - t218;
        // real block of 2
        const V t222 = t21 + t15;
        const V t223 = t21 - t15;
        // real block of 2
        const V t224 = t23 + t13;
        const V t225 = t23 - t13;
        // real block of 2
        const V t226 = t222 + t224;
        const V t227 = t222 - t224;
        // real block of 2
        const V t228 = t208 + t220;
        const V t229 = t208 - t220;
        // real block of 2
        const V t230 = t214 + t226;
        const V t231 = t214 - t226;
        // real block of 2
        const V t232 = t228 + t230;
        const V t233 = t228 - t230;
        // real block of 16
        const V t234 = c[0] * t213;
        const V t235 = c[1] * t211;
        const V t236 = t235 - t234;
        const V t237 = c[0] * t211;
        const V t238 = c[1] * t213;
        const V t239 = t238 + t237;
        const V t240 = t217 - t219;
        const V t241 = t219 + t217;
        const V t242 = c[2] * t240;
        const V t243 = c[2] * t241;
        const V t244 = c[1] * t225;
        const V t245 = c[0] * t223;
        const V t246 = t245 - t244;
        const V t247 = c[1] * t223;
        const V t248 = c[0] * t225;
        const V t249 = t248 + t247;
        // complex block of 2
        const V t250 = t205 + t242;
        const V t251 = t207 + t243;
        const V t252 = t205 - t242;
        const V t253 = t243 - t207;
        // complex block of 2
        const V t254 = t236 + t246;
        const V t255 = t239 + t249;
        const V t256 = t236 - t246;
        const V t257 = t249 - t239;
        // complex block of 2
        const V t258 = t250 + t254;
        const V t259 = t251 + t255;
        const V t260 = t250 - t254;
        const V t261 = t255 - t251;
        // complex block of 2
        const V t262 = t252 + t257;
        const V t263 = t253 - t256;
        const V t264 = t252 - t257;
        const V t265 = t253 + t256;
        // skew block of 4
        const V t266 = t215 - t227;
        const V t267 = c[2] * t266;
        const V t268 = t215 + t227;
        const V t269 = c[2] * t268;
        const V t270 = t269 - t221;
        const V t271 = t209 + t267;
        const V t272 = t221 + t269;
        const V t273 = t209 - t267;
        // real block of 17, multiplier 2
        const V t274 = t1 + t232;
        io.re(17, t274);
        const V t275 = c[17] * t232;
        const V t276 = t1 - t275;
        const V t277 = c[3] * t259;
        const V t278 = c[4] * t258;
        const V t279 = t278 - t277;
        const V t280 = c[3] * t258;
        const V t281 = c[4] * t259;
        const V t282 = t281 + t280;
        const V t283 = c[5] * t272;
        const V t284 = c[6] * t271;
        const V t285 = t284 + t283;
        const V t286 = c[5] * t271;
        const V t287 = c[6] * t272;
        const V t288 = t286 - t287;
        const V t289 = c[7] * t265;
        const V t290 = c[8] * t264;
        const V t291 = t290 + t289;
        const V t292 = c[7] * t264;
        const V t293 = c[8] * t265;
        const V t294 = t292 - t293;
        const V t295 = c[9] * t231;
        const V t296 = c[10] * t229;
        const V t297 = t296 + t295;
        const V t298 = c[9] * t229;
        const V t299 = c[10] * t231;
        const V t300 = t299 - t298;
        const V t301 = c[11] * t263;
        const V t302 = c[12] * t262;
        const V t303 = t302 + t301;
        const V t304 = c[11] * t262;
        const V t305 = c[12] * t263;
        const V t306 = t305 - t304;
        const V t307 = c[13] * t270;
        const V t308 = c[14] * t273;
        const V t309 = t308 - t307;
        const V t310 = c[13] * t273;
        const V t311 = c[14] * t270;
        const V t312 = t311 + t310;
        const V t313 = c[15] * t261;
        const V t314 = c[16] * t260;
        const V t315 = t314 - t313;
        const V t316 = c[15] * t260;
        const V t317 = c[16] * t261;
        const V t318 = t317 + t316;
        const V t319 = c[18] * t233;
        // spectrum block of 2
        const V t320 = t276 + t319;
        const V t321 = t276 - t319;
        // spectrum block of 2
        const V t322 = t320 - t297;
        const V t323 = t320 + t297;
        // spectrum block of 2
        const V t324 = t321 - t300;
        const V t325 = t321 + t300;
        // mirrored skew block of 4
        const V t326 = t285 - t309;
        const V t327 = c[2] * t326;
        const V t328 = t288 - t312;
        const V t329 = c[2] * t328;
        const V t330 = t285 + t309;
        const V t331 = t327 - t329;
        const V t332 = t288 + t312;
        const V t333 = t327 + t329;
        // spectrum block of 2
        const V t334 = t322 + t330;
        io.re(15, t334);
        const V t335 = t322 - t330;
        io.re(9, t335);
        // spectrum block of 2
        const V t336 = t324 + t331;
        io.re(5, t336);
        const V t337 = t324 - t331;
        io.re(3, t337);
        // spectrum block of 2
        const V t338 = t323 - t332;
        io.re(13, t338);
        const V t339 = t323 + t332;
        io.re(1, t339);
        // spectrum block of 2
        const V t340 = t325 - t333;
        io.re(7, t340);
        const V t341 = t325 + t333;
        io.re(11, t341);
        // complex block of 2
        const V t342 = t315 - t279;
        const V t343 = t282 + t318;
        const V t344 = t279 + t315;
        const V t345 = t318 - t282;
        // complex block of 2
        const V t346 = t291 - t303;
        const V t347 = t306 + t294;
        const V t348 = t303 + t291;
        const V t349 = t306 - t294;
        // complex block of 2
        const V t350 = t342 + t346;
        io.im(9, t350);
        const V t351 = t347 - t343;
        io.minusIm(15, t351);
        const V t352 = t342 - t346;
        const V t353 = t343 + t347;
        // complex block of 2
        const V t354 = t349 - t344;
        const V t355 = t345 + t348;
        const V t356 = t344 + t349;
        const V t357 = t345 - t348;
        // mirrored skew block of 8
        const V t358 = c[0] * t354;
        const V t359 = c[1] * t355;
        const V t360 = t359 - t358;
        io.minusIm(5, t360);
        const V t361 = c[0] * t355;
        const V t362 = c[1] * t354;
        const V t363 = t362 + t361;
        io.im(3, t363);
        const V t364 = c[2] * t353;
        const V t365 = c[2] * t352;
        const V t366 = t365 - t364;
        io.im(1, t366);
        const V t367 = t365 + t364;
        io.im(13, t367);
        const V t368 = c[1] * t356;
        const V t369 = c[0] * t357;
        const V t370 = t369 + t368;
        io.im(7, t370);
        const V t371 = c[1] * t357;
        const V t372 = c[0] * t356;
        const V t373 = t371 - t372;
        io.minusIm(11, t373);
    }
};

}  // namespace zulg
