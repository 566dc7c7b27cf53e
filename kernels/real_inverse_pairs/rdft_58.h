// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 58.
// Inverse DFT to 58 real points, prime-factor 29, 2; two lanes to a register.
// 196 sums, 146 differences, 244 products of registers, which do the 1204 steps of the graph, those with
// `scale` included; 88 shuffles, 22 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<58> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.9749279121818236,  // c[1]: sin 2 pi 2/7
        0.4338837391175581,  // c[2]: sin 2 pi 10/7
        0.7818314824680298,  // c[3]: sin 2 pi 8/7
        0.2225209339563144,  // c[4]: -cos 2 pi 2/7
        0.9009688679024191,  // c[5]: -cos 2 pi 10/7
        0.6234898018587335,  // c[6]: cos 2 pi 8/7
        0.07274108340629196,  // c[7]: Q[7] of 29
        0.3777140697119294,  // c[8]: -P[7] of 29
        0.38413584113980626,  // c[9]: Q[11] of 29
        0.019970959548377194,  // c[10]: -P[11] of 29
        0.012126226322052493,  // c[11]: Q[3] of 29
        0.384463442096457,  // c[12]: -P[3] of 29
        0.3219828698364479,  // c[13]: -Q[1] of 29
        0.21044290248272673,  // c[14]: -P[1] of 29
        0.3398943908268515,  // c[15]: -Q[13] of 29
        0.1800860537573993,  // c[16]: -P[13] of 29
        0.36147698792300353,  // c[17]: -Q[5] of 29
        0.13150502224471186,  // c[18]: P[5] of 29
        0.3603875070846735,  // c[19]: P[9] of 29
        0.13446199615788765,  // c[20]: Q[9] of 29
        0.3298297662985413,  // c[21]: P[2] of 29
        0.19791793485411824,  // c[22]: Q[2] of 29
        0.3609030660383976,  // c[23]: P[4] of 29
        0.1330720128259635,  // c[24]: -Q[4] of 29
        0.38084126020120657,  // c[25]: P[6] of 29
        0.054028864524680344,  // c[26]: -Q[6] of 29
        0.2786653006997481,  // c[27]: P[8] of 29
        0.26515058713755163,  // c[28]: Q[8] of 29
        0.24228395147216553,  // c[29]: -Q[10] of 29
        0.2987602224736465,  // c[30]: -P[10] of 29
        0.08413784916151361,  // c[31]: P[12] of 29
        0.3753398540149231,  // c[32]: -Q[12] of 29
        0.03571428571428571,  // c[33]: 1/28
        0.192327314540518,  // c[34]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x28 = io.pair(28);
        // doubled bins
        const P t0 = c[0] * x28;
        const P x13 = io.pair(13);
        const P t1 = c[0] * x13;
        const P t2 = shuffled<1, 3>(t0, t1);
        const P x16 = io.pair(16);
        const P t3 = c[0] * x16;
        const P x1 = io.pair(1);
        const P t4 = c[0] * x1;
        const P t5 = shuffled<1, 3>(t3, t4);
        // real block of 7
        const P t6 = t2 - t5;
        const P x22 = io.pair(22);
        // doubled bins
        const P t7 = c[0] * x22;
        const P x7 = io.pair(7);
        const P t8 = c[0] * x7;
        const P t9 = shuffled<1, 3>(t7, t8);
        const P x6 = io.pair(6);
        const P t10 = c[0] * x6;
        const P x23 = io.pair(23);
        const P t11 = c[0] * x23;
        const P t12 = shuffled<1, 3>(t10, t11);
        // real block of 7
        const P t13 = t9 + t12;
        const P t14 = flipped<0, 1>(t13);
        const P t15 = t6 + t14;
        const P x20 = io.pair(20);
        // doubled bins
        const P t16 = c[0] * x20;
        const P x9 = io.pair(9);
        const P t17 = c[0] * x9;
        const P t18 = shuffled<1, 3>(t16, t17);
        const P x24 = io.pair(24);
        const P t19 = c[0] * x24;
        const P x5 = io.pair(5);
        const P t20 = c[0] * x5;
        const P t21 = shuffled<1, 3>(t19, t20);
        // real block of 7
        const P t22 = t18 + t21;
        const P t23 = flipped<1, 0>(t22);
        const P t24 = t15 + t23;
        const P x4 = io.pair(4);
        // doubled bins
        const P t25 = c[0] * x4;
        const P x25 = io.pair(25);
        const P t26 = P(c[0], -c[0]) * x25;
        const P t27 = shuffled<1, 3>(t25, t26);
        // real block of 7
        const P t28 = t24 + t27;
        const P x14 = io.pair(14);
        // doubled bins
        const P t29 = c[0] * x14;
        const P x21 = io.pair(21);
        const P t30 = c[0] * x21;
        const P t31 = shuffled<1, 3>(t29, t30);
        const P x8 = io.pair(8);
        const P t32 = c[0] * x8;
        const P x15 = io.pair(15);
        const P t33 = c[0] * x15;
        const P t34 = shuffled<1, 3>(t32, t33);
        // real block of 7
        const P t35 = t31 - t34;
        const P x18 = io.pair(18);
        // doubled bins
        const P t36 = c[0] * x18;
        const P x11 = io.pair(11);
        const P t37 = c[0] * x11;
        const P t38 = shuffled<1, 3>(t36, t37);
        const P x26 = io.pair(26);
        const P t39 = c[0] * x26;
        const P x3 = io.pair(3);
        const P t40 = c[0] * x3;
        const P t41 = shuffled<1, 3>(t39, t40);
        // real block of 7
        const P t42 = t38 + t41;
        const P t43 = flipped<1, 0>(t42);
        const P t44 = t35 + t43;
        const P x10 = io.pair(10);
        // doubled bins
        const P t45 = c[0] * x10;
        const P x19 = io.pair(19);
        const P t46 = c[0] * x19;
        const P t47 = shuffled<1, 3>(t45, t46);
        const P x12 = io.pair(12);
        const P t48 = c[0] * x12;
        const P x17 = io.pair(17);
        const P t49 = c[0] * x17;
        const P t50 = shuffled<1, 3>(t48, t49);
        // real block of 7
        const P t51 = t47 + t50;
        const P t52 = flipped<1, 0>(t51);
        const P t53 = t44 + t52;
        const P x2 = io.pair(2);
        // doubled bins
        const P t54 = c[0] * x2;
        const P x27 = io.pair(27);
        const P t55 = P(c[0], -c[0]) * x27;
        const P t56 = shuffled<1, 3>(t54, t55);
        // real block of 7
        const P t57 = t53 + t56;
        // spectrum block of 29, multiplier 2
        const P t58 = c[7] * t28;
        const P t59 = c[8] * t57;
        const P t60 = t58 + t59;
        // real block of 7
        const P t61 = t2 + t5;
        const P t62 = shuffled<0, 3>(t9, t12);
        const P t63 = shuffled<0, 3>(t12, t9);
        const P t64 = t62 - t63;
        const P t65 = c[1] * t61;
        const P t66 = P(-c[2], c[2]) * t64;
        const P t67 = t65 + t66;
        const P t68 = shuffled<0, 3>(t21, t18);
        const P t69 = shuffled<0, 3>(t18, t21);
        const P t70 = t68 - t69;
        const P t71 = P(-c[3], c[3]) * t70;
        const P t72 = t67 + t71;
        const P t73 = flipped<0, 1>(t27);
        const P t74 = P(-c[4], c[4]) * t6;
        const P t75 = t73 + t74;
        const P t76 = P(-c[5], c[5]) * t13;
        const P t77 = flipped<0, 1>(t75);
        const P t78 = t76 + t77;
        const P t79 = P(-c[6], c[6]) * t22;
        const P t80 = t78 + t79;
        // skew block of 14
        const P t81 = c[3] * t72;
        const P t82 = P(c[6], -c[6]) * t80;
        const P t83 = t81 + t82;
        // real block of 7
        const P t84 = t31 + t34;
        const P t85 = shuffled<0, 3>(t41, t38);
        const P t86 = shuffled<0, 3>(t38, t41);
        const P t87 = t85 - t86;
        const P t88 = c[1] * t84;
        const P t89 = P(-c[2], c[2]) * t87;
        const P t90 = t88 + t89;
        const P t91 = shuffled<0, 3>(t50, t47);
        const P t92 = shuffled<0, 3>(t47, t50);
        const P t93 = t91 - t92;
        const P t94 = P(-c[3], c[3]) * t93;
        const P t95 = t90 + t94;
        const P t96 = shuffled<0, 3>(t83, t95);
        const P t97 = shuffled<0, 3>(t95, t83);
        // complex block of 2
        const P t98 = t96 - t97;
        const P t99 = flipped<0, 1>(t56);
        // real block of 7
        const P t100 = P(-c[4], c[4]) * t35;
        const P t101 = t99 + t100;
        const P t102 = c[5] * t42;
        const P t103 = t101 + t102;
        const P t104 = P(-c[6], c[6]) * t51;
        const P t105 = flipped<0, 1>(t103);
        const P t106 = t104 + t105;
        // skew block of 14
        const P t107 = c[3] * t80;
        const P t108 = P(-c[6], c[6]) * t72;
        const P t109 = t107 + t108;
        // complex block of 2
        const P t110 = t106 - t109;
        // spectrum block of 29, multiplier 2
        const P t111 = c[9] * t98;
        const P t112 = c[10] * t110;
        const P t113 = t111 + t112;
        // complex block of 2
        const P t114 = t95 + t83;
        const P t115 = t106 + t109;
        // spectrum block of 29, multiplier 2
        const P t116 = c[11] * t114;
        const P t117 = P(c[12], -c[12]) * t115;
        const P t118 = t116 + t117;
        const P t119 = flipped<0, 1>(t113);
        // complex block of 7, multiplier 4
        const P t120 = t118 + t119;
        const V t121 = part<0>(t60);
        const P t122 = c[6] * t120;
        const V t123 = part<0>(t122);
        const V t124 = t121 + t123;
        // real block of 7
        const P t125 = c[1] * t93;
        const P t126 = P(c[2], -c[2]) * t84;
        const P t127 = t125 + t126;
        const P t128 = c[3] * t87;
        const P t129 = t127 - t128;
        // real block of 7
        const P t130 = c[1] * t70;
        const P t131 = P(c[2], -c[2]) * t61;
        const P t132 = t130 + t131;
        const P t133 = c[3] * t64;
        const P t134 = t132 - t133;
        const P t135 = P(-c[5], c[5]) * t6;
        const P t136 = t73 + t135;
        const P t137 = c[6] * t13;
        const P t138 = t136 + t137;
        const P t139 = c[4] * t22;
        const P t140 = t138 + t139;
        // skew block of 14
        const P t141 = c[4] * t140;
        const P t142 = P(c[1], -c[1]) * t134;
        const P t143 = t141 + t142;
        const P t144 = flipped<0, 1>(t129);
        // complex block of 2
        const P t145 = t143 + t144;
        // real block of 7
        const P t146 = P(-c[5], c[5]) * t35;
        const P t147 = t99 + t146;
        const P t148 = P(-c[6], c[6]) * t42;
        const P t149 = flipped<0, 1>(t147);
        const P t150 = t148 + t149;
        const P t151 = P(c[4], -c[4]) * t51;
        const P t152 = t150 + t151;
        // skew block of 14
        const P t153 = c[1] * t140;
        const P t154 = P(-c[4], c[4]) * t134;
        const P t155 = t153 + t154;
        const P t156 = flipped<0, 1>(t155);
        // complex block of 2
        const P t157 = t152 + t156;
        // spectrum block of 29, multiplier 2
        const P t158 = c[13] * t145;
        const P t159 = P(-c[14], c[14]) * t157;
        const P t160 = t158 + t159;
        // complex block of 2
        const P t161 = t143 - t144;
        const P t162 = t152 - t156;
        // spectrum block of 29, multiplier 2
        const P t163 = c[15] * t161;
        const P t164 = P(-c[16], c[16]) * t162;
        const P t165 = t163 + t164;
        // complex block of 7, multiplier 4
        const P t166 = t160 + t165;
        const V t167 = part<0>(t166);
        const V t168 = c[4] * t167;
        const V t169 = t168 - t124;
        // real block of 7
        const P t170 = c[1] * t87;
        const P t171 = c[3] * t84;
        const P t172 = c[2] * t93;
        const P t173 = shuffled<0, 3>(t171, t172);
        const P t174 = t170 + t173;
        const P t175 = shuffled<0, 3>(t172, t171);
        const P t176 = flipped<0, 1>(t175);
        const P t177 = t174 + t176;
        // real block of 7
        const P t178 = c[1] * t64;
        const P t179 = c[3] * t61;
        const P t180 = c[2] * t70;
        const P t181 = shuffled<0, 3>(t179, t180);
        const P t182 = t178 + t181;
        const P t183 = shuffled<0, 3>(t180, t179);
        const P t184 = flipped<0, 1>(t183);
        const P t185 = t182 + t184;
        const P t186 = c[6] * t6;
        const P t187 = P(-c[4], c[4]) * t13;
        const P t188 = t186 + t187;
        const P t189 = P(c[5], -c[5]) * t22;
        const P t190 = t188 + t189;
        const P t191 = t190 + t27;
        // skew block of 14
        const P t192 = c[2] * t185;
        const P t193 = c[5] * t191;
        const P t194 = t192 + t193;
        // complex block of 2
        const P t195 = t177 + t194;
        // real block of 7
        const P t196 = c[6] * t35;
        const P t197 = P(c[4], -c[4]) * t42;
        const P t198 = t196 + t197;
        const P t199 = P(c[5], -c[5]) * t51;
        const P t200 = t198 + t199;
        const P t201 = t200 + t56;
        // skew block of 14
        const P t202 = c[2] * t191;
        const P t203 = c[5] * t185;
        const P t204 = t202 - t203;
        // complex block of 2
        const P t205 = t201 + t204;
        // spectrum block of 29, multiplier 2
        const P t206 = c[17] * t195;
        const P t207 = c[18] * t205;
        const P t208 = t206 + t207;
        // complex block of 2
        const P t209 = t201 - t204;
        const P t210 = t194 - t177;
        // spectrum block of 29, multiplier 2
        const P t211 = c[19] * t209;
        const P t212 = c[20] * t210;
        const P t213 = t211 - t212;
        // complex block of 7, multiplier 4
        const P t214 = t208 + t213;
        const P t215 = c[4] * t120;
        const V t216 = part<0>(t215);
        const V t217 = c[5] * t167;
        const V t218 = t216 + t217;
        const V t219 = part<0>(t214);
        const V t220 = c[6] * t219;
        const V t221 = t218 - t220;
        const P t222 = c[5] * t120;
        const V t223 = part<0>(t222);
        const V t224 = c[6] * t167;
        const V t225 = t223 - t224;
        const V t226 = c[4] * t219;
        const V t227 = t225 + t226;
        const P t228 = shuffled<0, 2>(t54, t55);
        const P t229 = shuffled<0, 2>(t19, t20);
        // real block of 2
        const P t230 = t228 + t229;
        const P t231 = t228 - t229;
        const P t232 = shuffled<0, 2>(t32, t30);
        const P t233 = shuffled<0, 2>(t16, t17);
        // real block of 2
        const P t234 = t232 + t233;
        const P t235 = t232 - t233;
        const P t236 = shuffled<0, 2>(t39, t40);
        const P t237 = shuffled<0, 2>(t7, t8);
        // real block of 2
        const P t238 = t236 + t237;
        const P t239 = t236 - t237;
        const P t240 = shuffled<0, 2>(t48, t49);
        const P t241 = shuffled<0, 2>(t0, t4);
        // real block of 2
        const P t242 = t240 + t241;
        const P t243 = t240 - t241;
        const P t244 = shuffled<0, 2>(t45, t46);
        const P t245 = shuffled<0, 2>(t25, t26);
        // real block of 2
        const P t246 = t244 + t245;
        const P t247 = t244 - t245;
        const P t248 = shuffled<0, 2>(t36, t37);
        const P t249 = shuffled<0, 2>(t3, t1);
        // real block of 2
        const P t250 = t248 + t249;
        const P t251 = t248 - t249;
        const P t252 = shuffled<0, 2>(t29, t33);
        const P t253 = shuffled<0, 2>(t10, t11);
        // real block of 2
        const P t254 = t252 + t253;
        const P t255 = t252 - t253;
        // real block of 7, multiplier 2
        const P t256 = t234 + t254;
        const P t257 = t234 - t254;
        const P t258 = t250 + t238;
        const P t259 = t250 - t238;
        const P t260 = t246 + t242;
        const P t261 = t246 - t242;
        const P t262 = t256 + t258;
        const P t263 = t262 + t260;
        const P t264 = t263 + t230;
        const P t265 = c[4] * t256;
        const P t266 = t230 - t265;
        const P t267 = c[5] * t258;
        const P t268 = t266 - t267;
        const P t269 = c[6] * t260;
        const P t270 = t268 + t269;
        const P t271 = c[1] * t257;
        const P t272 = c[2] * t259;
        const P t273 = t271 + t272;
        const P t274 = c[3] * t261;
        const P t275 = t273 + t274;
        const P t276 = c[5] * t256;
        const P t277 = t230 - t276;
        const P t278 = c[6] * t258;
        const P t279 = t277 + t278;
        const P t280 = c[4] * t260;
        const P t281 = t279 - t280;
        const P t282 = c[2] * t257;
        const P t283 = c[3] * t259;
        const P t284 = t282 + t283;
        const P t285 = c[1] * t261;
        const P t286 = t284 - t285;
        const P t287 = c[6] * t256;
        const P t288 = c[4] * t258;
        const P t289 = t287 - t288;
        const P t290 = c[5] * t260;
        const P t291 = t289 - t290;
        const P t292 = t291 + t230;
        const P t293 = c[3] * t257;
        const P t294 = c[1] * t259;
        const P t295 = t293 - t294;
        const P t296 = c[2] * t261;
        const P t297 = t295 - t296;
        // real block of 7, multiplier 2
        const P t298 = t235 + t255;
        const P t299 = t235 - t255;
        const P t300 = t251 + t239;
        const P t301 = t251 - t239;
        const P t302 = t247 + t243;
        const P t303 = t247 - t243;
        const P t304 = t298 + t300;
        const P t305 = t304 + t302;
        const P t306 = t305 + t231;
        const P t307 = c[4] * t298;
        const P t308 = t231 - t307;
        const P t309 = c[5] * t300;
        const P t310 = t308 - t309;
        const P t311 = c[6] * t302;
        const P t312 = t310 + t311;
        const P t313 = c[1] * t299;
        const P t314 = c[2] * t301;
        const P t315 = t313 + t314;
        const P t316 = c[3] * t303;
        const P t317 = t315 + t316;
        const P t318 = c[5] * t298;
        const P t319 = t231 - t318;
        const P t320 = c[6] * t300;
        const P t321 = t319 + t320;
        const P t322 = c[4] * t302;
        const P t323 = t321 - t322;
        const P t324 = c[2] * t299;
        const P t325 = c[3] * t301;
        const P t326 = t324 + t325;
        const P t327 = c[1] * t303;
        const P t328 = t326 - t327;
        const P t329 = c[6] * t298;
        const P t330 = c[4] * t300;
        const P t331 = t329 - t330;
        const P t332 = c[5] * t302;
        const P t333 = t331 - t332;
        const P t334 = t333 + t231;
        const P t335 = c[3] * t299;
        const P t336 = c[1] * t301;
        const P t337 = t335 - t336;
        const P t338 = c[2] * t303;
        const P t339 = t337 - t338;
        const V x0r = io.re(0);
        const V x29r = io.re(29);
        const P t340 = joined(x0r, x29r);
        // spectrum block of 29, multiplier 2
        const P t341 = c[33] * t264;
        const P t342 = t340 - t341;
        const P t343 = c[14] * t145;
        const P t344 = P(c[13], -c[13]) * t157;
        const P t345 = t343 + t344;
        const P t346 = c[21] * t334;
        const P t347 = c[22] * t339;
        const P t348 = t346 + t347;
        const P t349 = c[22] * t334;
        const P t350 = c[21] * t339;
        const P t351 = t349 - t350;
        const P t352 = c[11] * t115;
        const P t353 = P(-c[12], c[12]) * t114;
        const P t354 = t352 + t353;
        const P t355 = c[23] * t270;
        const P t356 = c[24] * t275;
        const P t357 = t355 - t356;
        const P t358 = c[23] * t275;
        const P t359 = c[24] * t270;
        const P t360 = t358 + t359;
        const P t361 = c[18] * t195;
        const P t362 = c[17] * t205;
        const P t363 = t361 - t362;
        const P t364 = c[25] * t323;
        const P t365 = c[26] * t328;
        const P t366 = t364 - t365;
        const P t367 = c[25] * t328;
        const P t368 = c[26] * t323;
        const P t369 = t367 + t368;
        const P t370 = c[7] * t57;
        const P t371 = c[8] * t28;
        const P t372 = t370 - t371;
        const P t373 = c[27] * t281;
        const P t374 = c[28] * t286;
        const P t375 = t373 - t374;
        const P t376 = c[27] * t286;
        const P t377 = c[28] * t281;
        const P t378 = t376 + t377;
        const P t379 = c[20] * t209;
        const P t380 = c[19] * t210;
        const P t381 = t379 + t380;
        const P t382 = c[29] * t317;
        const P t383 = c[30] * t312;
        const P t384 = t382 - t383;
        const P t385 = c[30] * t317;
        const P t386 = c[29] * t312;
        const P t387 = t385 + t386;
        const P t388 = c[9] * t110;
        const P t389 = c[10] * t98;
        const P t390 = t388 - t389;
        const P t391 = c[31] * t292;
        const P t392 = c[32] * t297;
        const P t393 = t391 + t392;
        const P t394 = c[31] * t297;
        const P t395 = c[32] * t292;
        const P t396 = t394 - t395;
        const P t397 = c[16] * t161;
        const P t398 = P(c[15], -c[15]) * t162;
        const P t399 = t397 + t398;
        // spectrum block of 7, multiplier 4
        const P t400 = t357 + t375;
        const P t401 = t400 + t393;
        const P t402 = t401 + t342;
        const P t403 = c[6] * t357;
        const P t404 = c[4] * t375;
        const P t405 = t403 - t404;
        const P t406 = c[5] * t393;
        const P t407 = t405 - t406;
        const P t408 = t407 + t342;
        const P t409 = c[1] * t378;
        const P t410 = c[3] * t360;
        const P t411 = t409 - t410;
        const P t412 = c[2] * t396;
        const P t413 = t411 + t412;
        const P t414 = t408 - t413;
        const P t415 = t408 + t413;
        const P t416 = c[4] * t357;
        const P t417 = t342 - t416;
        const P t418 = c[5] * t375;
        const P t419 = t417 - t418;
        const P t420 = c[6] * t393;
        const P t421 = t419 + t420;
        const P t422 = c[1] * t360;
        const P t423 = c[2] * t378;
        const P t424 = t422 + t423;
        const P t425 = c[3] * t396;
        const P t426 = t424 + t425;
        const P t427 = t421 + t426;
        const P t428 = t421 - t426;
        const P t429 = c[5] * t357;
        const P t430 = t342 - t429;
        const P t431 = c[6] * t375;
        const P t432 = t430 + t431;
        const P t433 = c[4] * t393;
        const P t434 = t432 - t433;
        const P t435 = c[2] * t360;
        const P t436 = c[3] * t378;
        const P t437 = t435 + t436;
        const P t438 = c[1] * t396;
        const P t439 = t438 - t437;
        const P t440 = t434 - t439;
        const P t441 = t434 + t439;
        // complex block of 7, multiplier 4
        const P t442 = t390 + t354;
        const P t443 = t118 - t119;
        const P t444 = t390 - t354;
        const P t445 = t345 + t399;
        const P t446 = shuffled<0, 3>(t165, t160);
        const P t447 = shuffled<0, 3>(t160, t165);
        const P t448 = t446 - t447;
        const P t449 = shuffled<0, 3>(t399, t345);
        const P t450 = shuffled<0, 3>(t345, t399);
        const P t451 = t449 - t450;
        const P t452 = t363 + t381;
        const P t453 = t213 - t208;
        const P t454 = t363 - t381;
        const P t455 = t120 + t166;
        const P t456 = flipped<0, 1>(t214);
        const P t457 = t455 + t456;
        const P t458 = flipped<1, 0>(t445);
        const P t459 = t442 + t458;
        const P t460 = t459 + t452;
        const P t461 = flipped<0, 1>(t60);
        const P t462 = t457 + t461;
        const P t463 = t460 + t372;
        const V t464 = part<1>(t122);
        const V t465 = part<1>(t166);
        // complex block of 7, multiplier 4
        const V t466 = c[4] * t465;
        const V t467 = t464 - t466;
        const V t468 = part<1>(t214);
        const V t469 = c[5] * t468;
        const V t470 = t467 + t469;
        const P t471 = joined(t169, t470);
        // complex block of 7, multiplier 4
        const V t472 = c[5] * t219;
        const V t473 = part<1>(t461);
        const P t474 = joined(t472, t473);
        const P t475 = t471 + t474;
        const P t476 = c[6] * t442;
        const P t477 = P(c[4], -c[4]) * t445;
        const P t478 = t476 + t477;
        const P t479 = c[5] * t452;
        const P t480 = t478 - t479;
        const P t481 = t480 + t372;
        const P t482 = c[3] * t443;
        const P t483 = P(-c[1], c[1]) * t448;
        const P t484 = t482 + t483;
        const P t485 = P(-c[2], c[2]) * t453;
        const P t486 = t484 + t485;
        const P t487 = c[3] * t444;
        const P t488 = c[1] * t451;
        const P t489 = t487 - t488;
        const P t490 = c[2] * t454;
        const P t491 = t489 - t490;
        const P t492 = t475 + t491;
        const P t493 = flipped<1, 0>(t486);
        const P t494 = t481 + t493;
        const P t495 = t475 - t491;
        const P t496 = t481 - t493;
        const V t497 = part<1>(t215);
        // complex block of 7, multiplier 4
        const V t498 = t497 - t473;
        const V t499 = c[5] * t465;
        const V t500 = t498 + t499;
        const P t501 = joined(t221, t500);
        const V t502 = -c[6] * t468;
        const P t503 = joined(t121, t502);
        // complex block of 7, multiplier 4
        const P t504 = t501 - t503;
        const P t505 = c[4] * t442;
        const P t506 = t372 - t505;
        const P t507 = P(c[5], -c[5]) * t445;
        const P t508 = t506 + t507;
        const P t509 = c[6] * t452;
        const P t510 = t508 + t509;
        const P t511 = c[2] * t448;
        const P t512 = P(c[1], -c[1]) * t443;
        const P t513 = t511 + t512;
        const P t514 = c[3] * t453;
        const P t515 = t513 + t514;
        const P t516 = c[1] * t444;
        const P t517 = c[2] * t451;
        const P t518 = t516 + t517;
        const P t519 = c[3] * t454;
        const P t520 = t518 + t519;
        const P t521 = flipped<0, 1>(t504);
        const P t522 = t520 + t521;
        const P t523 = t510 - t515;
        const P t524 = flipped<1, 0>(t520);
        const P t525 = t504 + t524;
        const P t526 = t510 + t515;
        const V t527 = part<1>(t222);
        // complex block of 7, multiplier 4
        const V t528 = t527 - t473;
        const V t529 = c[6] * t465;
        const V t530 = t529 - t528;
        const P t531 = joined(t227, t530);
        const V t532 = -c[4] * t468;
        const P t533 = joined(t121, t532);
        // complex block of 7, multiplier 4
        const P t534 = t531 - t533;
        const P t535 = c[5] * t442;
        const P t536 = t372 - t535;
        const P t537 = P(-c[6], c[6]) * t445;
        const P t538 = t536 + t537;
        const P t539 = c[4] * t452;
        const P t540 = t538 - t539;
        const P t541 = c[3] * t448;
        const P t542 = P(c[2], -c[2]) * t443;
        const P t543 = t541 + t542;
        const P t544 = c[1] * t453;
        const P t545 = t543 - t544;
        const P t546 = c[2] * t444;
        const P t547 = c[3] * t451;
        const P t548 = t546 + t547;
        const P t549 = c[1] * t454;
        const P t550 = t548 - t549;
        const P t551 = t534 + t550;
        const P t552 = t540 - t545;
        const P t553 = t534 - t550;
        const P t554 = t540 + t545;
        // spectrum block of 7, multiplier 4
        const P t555 = t384 + t366;
        const P t556 = t555 + t348;
        // spectrum block of 29, multiplier 2
        const P t557 = c[34] * t306;
        // spectrum block of 7, multiplier 4
        const P t558 = t556 - t557;
        const P t559 = c[6] * t384;
        const P t560 = c[4] * t366;
        const P t561 = t559 - t560;
        const P t562 = c[5] * t348;
        const P t563 = t561 - t562;
        const P t564 = t563 - t557;
        const P t565 = c[3] * t387;
        const P t566 = c[1] * t369;
        const P t567 = t565 + t566;
        const P t568 = c[2] * t351;
        const P t569 = t567 - t568;
        const P t570 = t564 - t569;
        const P t571 = t564 + t569;
        const P t572 = c[4] * t384;
        const P t573 = t557 + t572;
        const P t574 = c[5] * t366;
        const P t575 = t573 + t574;
        const P t576 = c[6] * t348;
        const P t577 = t576 - t575;
        const P t578 = c[1] * t387;
        const P t579 = c[2] * t369;
        const P t580 = t578 - t579;
        const P t581 = c[3] * t351;
        const P t582 = t580 + t581;
        const P t583 = t577 - t582;
        const P t584 = t577 + t582;
        const P t585 = c[5] * t384;
        const P t586 = t557 + t585;
        const P t587 = c[6] * t366;
        const P t588 = t587 - t586;
        const P t589 = c[4] * t348;
        const P t590 = t588 - t589;
        const P t591 = c[2] * t387;
        const P t592 = c[3] * t369;
        const P t593 = t591 - t592;
        const P t594 = c[1] * t351;
        const P t595 = t593 - t594;
        const P t596 = t590 - t595;
        const P t597 = t590 + t595;
        // spectrum block of 2
        const P t598 = t402 + t558;
        const P t599 = t402 - t558;
        // spectrum block of 2
        const P t600 = t598 + t463;
        const P t601 = t598 - t463;
        const P t602 = flipped<1, 0>(t462);
        // spectrum block of 2
        const P t603 = t599 + t602;
        const P t604 = t599 - t602;
        // spectrum block of 2
        const P t605 = t441 + t597;
        const P t606 = t441 - t597;
        // spectrum block of 2
        const P t607 = t605 + t554;
        const P t608 = t605 - t554;
        // spectrum block of 2
        const P t609 = t606 + t553;
        const P t610 = t606 - t553;
        // spectrum block of 2
        const P t611 = t414 + t570;
        const P t612 = t414 - t570;
        // spectrum block of 2
        const P t613 = t611 + t494;
        const P t614 = t611 - t494;
        // spectrum block of 2
        const P t615 = t612 + t492;
        const P t616 = t612 - t492;
        // spectrum block of 2
        const P t617 = t428 + t584;
        const P t618 = t428 - t584;
        // spectrum block of 2
        const P t619 = t617 + t526;
        const P t620 = t617 - t526;
        const P t621 = flipped<0, 1>(t525);
        // spectrum block of 2
        const P t622 = t618 + t621;
        const P t623 = t618 - t621;
        // spectrum block of 2
        const P t624 = t427 + t583;
        const P t625 = t427 - t583;
        // spectrum block of 2
        const P t626 = t624 + t523;
        const P t627 = t624 - t523;
        // spectrum block of 2
        const P t628 = t625 + t522;
        const P t629 = t625 - t522;
        // spectrum block of 2
        const P t630 = t415 + t571;
        const P t631 = t415 - t571;
        // spectrum block of 2
        const P t632 = t630 + t496;
        const P t633 = t630 - t496;
        // spectrum block of 2
        const P t634 = t631 + t495;
        const P t635 = t631 - t495;
        // spectrum block of 2
        const P t636 = t440 + t596;
        const P t637 = t440 - t596;
        // spectrum block of 2
        const P t638 = t636 + t552;
        const P t639 = t636 - t552;
        // spectrum block of 2
        const P t640 = t637 + t551;
        const P t641 = t637 - t551;
        // spectrum block of 29, multiplier 2
        const P t642 = t340 + t264;
        const P t643 = shuffled<0, 2>(t642, t600);
        const P t644 = shuffled<1, 3>(t642, t600);
        // spectrum block of 2
        const P t645 = t643 + t644;
        io.out(0, 2, t645);
        const P t646 = t643 - t644;
        io.out(29, 31, t646);
        const P t647 = shuffled<0, 2>(t634, t628);
        const P t648 = shuffled<1, 3>(t634, t628);
        // spectrum block of 2
        const P t649 = t647 + t648;
        io.out(4, 6, t649);
        const P t650 = t647 - t648;
        io.out(33, 35, t650);
        const P t651 = shuffled<0, 2>(t620, t633);
        const P t652 = shuffled<1, 3>(t620, t633);
        // spectrum block of 2
        const P t653 = t651 + t652;
        io.out(8, 10, t653);
        const P t654 = t651 - t652;
        io.out(37, 39, t654);
        const P t655 = shuffled<0, 2>(t614, t626);
        const P t656 = shuffled<1, 3>(t614, t626);
        // spectrum block of 2
        const P t657 = t655 + t656;
        io.out(12, 14, t657);
        const P t658 = t655 - t656;
        io.out(41, 43, t658);
        const P t659 = shuffled<0, 2>(t610, t608);
        const P t660 = shuffled<1, 3>(t610, t608);
        // spectrum block of 2
        const P t661 = t659 + t660;
        io.out(16, 18, t661);
        const P t662 = t659 - t660;
        io.out(45, 47, t662);
        const P t663 = shuffled<0, 2>(t623, t640);
        const P t664 = shuffled<1, 3>(t623, t640);
        // spectrum block of 2
        const P t665 = t663 + t664;
        io.out(20, 22, t665);
        const P t666 = t663 - t664;
        io.out(49, 51, t666);
        const P t667 = shuffled<0, 2>(t604, t639);
        const P t668 = shuffled<1, 3>(t604, t639);
        // spectrum block of 2
        const P t669 = t667 + t668;
        io.out(24, 26, t669);
        const P t670 = t667 - t668;
        io.out(53, 55, t670);
        const P t671 = shuffled<0, 2>(t615, t616);
        const P t672 = shuffled<1, 3>(t615, t616);
        // spectrum block of 2
        const P t673 = t671 + t672;
        io.out(28, 30, t673);
        const P t674 = t671 - t672;
        io.out(57, 1, t674);
        const P t675 = shuffled<0, 2>(t638, t603);
        const P t676 = shuffled<1, 3>(t638, t603);
        // spectrum block of 2
        const P t677 = t675 + t676;
        io.out(32, 34, t677);
        const P t678 = t675 - t676;
        io.out(3, 5, t678);
        const P t679 = shuffled<0, 2>(t641, t622);
        const P t680 = shuffled<1, 3>(t641, t622);
        // spectrum block of 2
        const P t681 = t679 + t680;
        io.out(36, 38, t681);
        const P t682 = t679 - t680;
        io.out(7, 9, t682);
        const P t683 = shuffled<0, 2>(t607, t609);
        const P t684 = shuffled<1, 3>(t607, t609);
        // spectrum block of 2
        const P t685 = t683 + t684;
        io.out(40, 42, t685);
        const P t686 = t683 - t684;
        io.out(11, 13, t686);
        const P t687 = shuffled<0, 2>(t627, t613);
        const P t688 = shuffled<1, 3>(t627, t613);
        // spectrum block of 2
        const P t689 = t687 + t688;
        io.out(44, 46, t689);
        const P t690 = t687 - t688;
        io.out(15, 17, t690);
        const P t691 = shuffled<0, 2>(t632, t619);
        const P t692 = shuffled<1, 3>(t632, t619);
        // spectrum block of 2
        const P t693 = t691 + t692;
        io.out(48, 50, t693);
        const P t694 = t691 - t692;
        io.out(19, 21, t694);
        const P t695 = shuffled<0, 2>(t629, t635);
        const P t696 = shuffled<1, 3>(t629, t635);
        // spectrum block of 2
        const P t697 = t695 + t696;
        io.out(52, 54, t697);
        const P t698 = t695 - t696;
        io.out(23, 25, t698);
        const V t699 = part<0>(t601);
        const V t700 = part<1>(t601);
        // spectrum block of 2
        const V t701 = t699 + t700;
        io.out(56, t701);
        const V t702 = t699 - t700;
        io.out(27, t702);
    }
};

}  // namespace zulg
