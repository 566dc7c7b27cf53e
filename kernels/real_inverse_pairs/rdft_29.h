// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 29.
// Inverse DFT to 29 real points, Rader 7, 4; two lanes to a register.
// 96 sums, 60 differences, 120 products of registers, which do the 573 steps of the graph, those with
// `scale` included; 81 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<29> {
    static constexpr int steps = 573;  // with `scale`
    static constexpr double inverseRoot = 0.18569533817705186;  // 1/sqrt(29), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 10/7
        0.6234898018587335,  // c[3]: cos 2 pi 8/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 10/7
        0.7818314824680298,  // c[6]: sin 2 pi 8/7
        0.2670821358430261,  // c[7]: -Q[1] of 29
        0.2768145884649087,  // c[8]: -P[1] of 29
        0.32142566997698113,  // c[9]: Q[2] of 29
        0.21129297752958617,  // c[10]: P[2] of 29
        0.2491897008367598,  // c[11]: Q[3] of 29
        0.29302504444220384,  // c[12]: -P[3] of 29
        0.19919633623825483,  // c[13]: Q[4] of 29
        0.3290592701972177,  // c[14]: P[4] of 29
        0.27532091814028564,  // c[15]: -Q[5] of 29
        0.26862162181749166,  // c[16]: -P[5] of 29
        0.35927022128602587,  // c[17]: Q[6] of 29
        0.13741940099767344,  // c[18]: P[6] of 29
        0.07274108340629196,  // c[19]: P[7] of 29
        0.3777140697119294,  // c[20]: Q[7] of 29
        0.21267702351981235,  // c[21]: Q[8] of 29
        0.3205115713047231,  // c[22]: -P[8] of 29
        0.38303879792644835,  // c[23]: -Q[9] of 29
        0.035220206650882144,  // c[24]: -P[9] of 29
        0.37569917287106036,  // c[25]: P[10] of 29
        0.0825185747421179,  // c[26]: -Q[10] of 29
        0.28787780453569184,  // c[27]: -Q[11] of 29
        0.25511870438911255,  // c[28]: P[11] of 29
        0.0870482765930398,  // c[29]: P[12] of 29
        0.37467556794599116,  // c[30]: Q[12] of 29
        0.0999373031094614,  // c[31]: P[13] of 29
        0.3714454456857387,  // c[32]: Q[13] of 29
        0.03571428571428571,  // c[33]: 1/28
        0.192327314540518,  // c[34]: beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x1 = io.pair(1);
        // doubled bins
        const P t0 = c[0] * x1;
        const P x4 = io.pair(4);
        const P t1 = c[0] * x4;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x12 = io.pair(12);
        const P t3 = c[0] * x12;
        const P x10 = io.pair(10);
        const P t4 = c[0] * x10;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 2
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x13 = io.pair(13);
        // doubled bins
        const P t8 = c[0] * x13;
        const P x6 = io.pair(6);
        const P t9 = c[0] * x6;
        const P t10 = shuffled<0, 2>(t8, t9);
        const P x11 = io.pair(11);
        const P t11 = c[0] * x11;
        const P x14 = io.pair(14);
        const P t12 = c[0] * x14;
        const P t13 = shuffled<0, 2>(t11, t12);
        // real block of 2
        const P t14 = t10 + t13;
        const P t15 = t10 - t13;
        const P x5 = io.pair(5);
        // doubled bins
        const P t16 = c[0] * x5;
        const P x9 = io.pair(9);
        const P t17 = c[0] * x9;
        const P t18 = shuffled<0, 2>(t16, t17);
        const P x2 = io.pair(2);
        const P t19 = c[0] * x2;
        const P x8 = io.pair(8);
        const P t20 = c[0] * x8;
        const P t21 = shuffled<0, 2>(t19, t20);
        // real block of 2
        const P t22 = t18 + t21;
        const P t23 = t18 - t21;
        const P x7 = io.pair(7);
        // doubled bins
        const P t24 = c[0] * x7;
        const V t25 = part<0>(t24);
        const P x3 = io.pair(3);
        const P t26 = c[0] * x3;
        const V t27 = part<0>(t26);
        // real block of 2
        const V t28 = t25 + t27;
        const V t29 = t25 - t27;
        const P t30 = shuffled<1, 3>(t6, t7);
        const P t31 = joined(t28, t29);
        // real block of 7, multiplier 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P t34 = shuffled<1, 3>(t22, t23);
        const P t35 = shuffled<0, 2>(t14, t15);
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P t38 = shuffled<0, 2>(t22, t23);
        const P t39 = shuffled<1, 3>(t14, t15);
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = t32 + t36;
        const P t43 = t42 + t40;
        const P t44 = shuffled<0, 2>(t6, t7);
        const P t45 = t43 + t44;
        const P t46 = c[1] * t32;
        const P t47 = t44 - t46;
        const P t48 = c[2] * t36;
        const P t49 = t47 - t48;
        const P t50 = c[3] * t40;
        const P t51 = t49 + t50;
        const P t52 = c[4] * t33;
        const P t53 = c[5] * t37;
        const P t54 = t52 + t53;
        const P t55 = c[6] * t41;
        const P t56 = t54 + t55;
        const P t57 = c[2] * t32;
        const P t58 = t44 - t57;
        const P t59 = c[3] * t36;
        const P t60 = t58 + t59;
        const P t61 = c[1] * t40;
        const P t62 = t60 - t61;
        const P t63 = c[5] * t33;
        const P t64 = c[6] * t37;
        const P t65 = t63 + t64;
        const P t66 = c[4] * t41;
        const P t67 = t65 - t66;
        const P t68 = c[3] * t32;
        const P t69 = c[1] * t36;
        const P t70 = t68 - t69;
        const P t71 = c[2] * t40;
        const P t72 = t70 - t71;
        const P t73 = t72 + t44;
        const P t74 = c[6] * t33;
        const P t75 = c[4] * t37;
        const P t76 = t74 - t75;
        const P t77 = c[5] * t41;
        const P t78 = t76 - t77;
        const P t79 = shuffled<1, 3>(t24, t12);
        const P t80 = shuffled<1, 3>(t1, t20);
        // real block of 7
        const P t81 = t79 - t80;
        const P t82 = t80 + t79;
        const P t83 = shuffled<1, 3>(t17, t11);
        const P t84 = shuffled<1, 3>(t8, t26);
        const P t85 = t83 + t84;
        const P t86 = shuffled<0, 3>(t84, t83);
        const P t87 = shuffled<0, 3>(t83, t84);
        const P t88 = t86 - t87;
        const P t89 = shuffled<1, 3>(t16, t4);
        const P t90 = shuffled<1, 3>(t9, t3);
        const P t91 = t89 + t90;
        const P t92 = t90 - t89;
        const P t93 = flipped<1, 0>(t85);
        const P t94 = t81 + t93;
        const P t95 = t94 - t91;
        const P t96 = shuffled<1, 3>(t0, t19);
        const P t97 = t95 + t96;
        const P t98 = c[3] * t81;
        const P t99 = P(c[1], -c[1]) * t85;
        const P t100 = t98 + t99;
        const P t101 = c[2] * t91;
        const P t102 = t100 + t101;
        const P t103 = t102 + t96;
        const P t104 = c[6] * t82;
        const P t105 = c[4] * t88;
        const P t106 = t104 + t105;
        const P t107 = c[5] * t92;
        const P t108 = t106 + t107;
        const P t109 = c[1] * t81;
        const P t110 = t96 - t109;
        const P t111 = P(c[2], -c[2]) * t85;
        const P t112 = t110 + t111;
        const P t113 = c[3] * t91;
        const P t114 = t112 - t113;
        const P t115 = c[4] * t82;
        const P t116 = c[5] * t88;
        const P t117 = t115 - t116;
        const P t118 = c[6] * t92;
        const P t119 = t117 - t118;
        const P t120 = c[2] * t81;
        const P t121 = t96 - t120;
        const P t122 = P(-c[3], c[3]) * t85;
        const P t123 = t121 + t122;
        const P t124 = c[1] * t91;
        const P t125 = t123 + t124;
        const P t126 = c[5] * t82;
        const P t127 = c[4] * t92;
        const P t128 = t126 + t127;
        const P t129 = c[6] * t88;
        const P t130 = t128 - t129;
        const P t131 = shuffled<1, 3>(t125, t130);
        // skew block of 14
        const P t132 = c[4] * t131;
        const P t133 = shuffled<1, 0>(t131);
        const P t134 = P(-c[1], c[1]) * t133;
        const P t135 = t132 + t134;
        const P t136 = shuffled<0, 2>(t125, t130);
        // complex block of 2
        const P t137 = t136 + t135;
        const P t138 = shuffled<0, 3>(t136, t135);
        const P t139 = shuffled<0, 3>(t135, t136);
        const P t140 = t138 - t139;
        const P t141 = shuffled<1, 3>(t114, t119);
        // skew block of 14
        const P t142 = c[6] * t141;
        const P t143 = shuffled<1, 0>(t141);
        const P t144 = P(-c[3], c[3]) * t143;
        const P t145 = t142 + t144;
        const P t146 = shuffled<0, 2>(t114, t119);
        // complex block of 2
        const P t147 = t146 + t145;
        const P t148 = shuffled<0, 3>(t146, t145);
        const P t149 = shuffled<0, 3>(t145, t146);
        const P t150 = t148 - t149;
        const P t151 = shuffled<1, 3>(t103, t108);
        // skew block of 14
        const P t152 = c[5] * t151;
        const P t153 = shuffled<1, 0>(t151);
        const P t154 = P(-c[2], c[2]) * t153;
        const P t155 = t152 + t154;
        const P t156 = shuffled<0, 2>(t103, t108);
        // complex block of 2
        const P t157 = t156 + t155;
        const P t158 = shuffled<0, 3>(t156, t155);
        const P t159 = shuffled<0, 3>(t155, t156);
        const P t160 = t158 - t159;
        const V x0r = io.re(0);
        const V t161 = part<0>(t45);
        // spectrum block of 29
        const V t162 = c[33] * t161;
        const V t163 = x0r - t162;
        const P t164 = c[7] * t137;
        const P t165 = shuffled<1, 0>(t137);
        const P t166 = P(c[8], -c[8]) * t165;
        const P t167 = t164 + t166;
        const P t168 = shuffled<1, 3>(t78, t73);
        const P t169 = c[9] * t168;
        const P t170 = shuffled<1, 0>(t168);
        const P t171 = P(c[10], -c[10]) * t170;
        const P t172 = t169 + t171;
        const P t173 = c[11] * t147;
        const P t174 = shuffled<1, 0>(t147);
        const P t175 = P(-c[12], c[12]) * t174;
        const P t176 = t173 + t175;
        const P t177 = shuffled<0, 2>(t56, t51);
        const P t178 = c[13] * t177;
        const P t179 = shuffled<1, 0>(t177);
        const P t180 = P(c[14], -c[14]) * t179;
        const P t181 = t178 + t180;
        const P t182 = c[15] * t157;
        const P t183 = shuffled<1, 0>(t157);
        const P t184 = P(c[16], -c[16]) * t183;
        const P t185 = t182 + t184;
        const P t186 = shuffled<1, 3>(t67, t62);
        const P t187 = c[17] * t186;
        const P t188 = shuffled<1, 0>(t186);
        const P t189 = P(c[18], -c[18]) * t188;
        const P t190 = t187 + t189;
        const P t191 = shuffled<1, 0>(t97);
        const P t192 = c[19] * t191;
        const P t193 = P(c[20], -c[20]) * t97;
        const P t194 = t192 + t193;
        const P t195 = shuffled<0, 2>(t67, t62);
        const P t196 = c[21] * t195;
        const P t197 = shuffled<1, 0>(t195);
        const P t198 = P(c[22], -c[22]) * t197;
        const P t199 = t196 + t198;
        const P t200 = c[23] * t160;
        const P t201 = shuffled<1, 0>(t160);
        const P t202 = P(c[24], -c[24]) * t201;
        const P t203 = t200 + t202;
        const P t204 = shuffled<1, 3>(t51, t56);
        const P t205 = c[25] * t204;
        const P t206 = shuffled<1, 0>(t204);
        const P t207 = P(c[26], -c[26]) * t206;
        const P t208 = t205 + t207;
        const P t209 = P(-c[27], c[27]) * t150;
        const P t210 = shuffled<1, 0>(t150);
        const P t211 = c[28] * t210;
        const P t212 = t209 + t211;
        const P t213 = shuffled<0, 2>(t73, t78);
        const P t214 = c[29] * t213;
        const P t215 = shuffled<1, 0>(t213);
        const P t216 = P(-c[30], c[30]) * t215;
        const P t217 = t214 + t216;
        const P t218 = shuffled<1, 0>(t140);
        const P t219 = c[31] * t218;
        const P t220 = P(c[32], -c[32]) * t140;
        const P t221 = t219 + t220;
        const P t222 = flipped<0, 1>(t176);
        // complex block of 7, multiplier 4
        const P t223 = t212 + t222;
        const P t224 = t212 - t222;
        const P t225 = flipped<1, 0>(t167);
        const P t226 = t225 + t221;
        const P t227 = t221 - t225;
        const P t228 = t185 + t203;
        const P t229 = t203 - t185;
        const P t230 = flipped<0, 1>(t226);
        const P t231 = t223 + t230;
        const P t232 = t231 - t228;
        const P t233 = t232 + t194;
        const P t234 = c[3] * t223;
        const P t235 = P(-c[1], c[1]) * t226;
        const P t236 = t234 + t235;
        const P t237 = c[2] * t228;
        const P t238 = t236 + t237;
        const P t239 = t238 + t194;
        const P t240 = c[6] * t224;
        const P t241 = P(c[4], -c[4]) * t227;
        const P t242 = t240 + t241;
        const P t243 = c[5] * t229;
        const P t244 = t242 - t243;
        const P t245 = shuffled<1, 0>(t244);
        const P t246 = flipped<1, 0>(t245);
        const P t247 = t239 + t246;
        const P t248 = t239 - t246;
        const P t249 = c[1] * t223;
        const P t250 = t194 - t249;
        const P t251 = P(-c[2], c[2]) * t226;
        const P t252 = t250 + t251;
        const P t253 = c[3] * t228;
        const P t254 = t252 - t253;
        const P t255 = c[4] * t224;
        const P t256 = P(-c[5], c[5]) * t227;
        const P t257 = t255 + t256;
        const P t258 = c[6] * t229;
        const P t259 = t257 + t258;
        const P t260 = shuffled<1, 0>(t259);
        const P t261 = flipped<1, 0>(t260);
        const P t262 = t254 + t261;
        const P t263 = t254 - t261;
        const P t264 = c[2] * t223;
        const P t265 = t194 - t264;
        const P t266 = P(c[3], -c[3]) * t226;
        const P t267 = t265 + t266;
        const P t268 = c[1] * t228;
        const P t269 = t267 + t268;
        const P t270 = c[5] * t224;
        const P t271 = P(-c[6], c[6]) * t227;
        const P t272 = t270 + t271;
        const P t273 = c[4] * t229;
        const P t274 = t272 - t273;
        const P t275 = shuffled<1, 0>(t274);
        const P t276 = flipped<1, 0>(t275);
        const P t277 = t269 + t276;
        const P t278 = t269 - t276;
        const P t279 = shuffled<0, 2>(t181, t208);
        const P t280 = shuffled<0, 2>(t199, t190);
        const P t281 = flipped<1, 0>(t280);
        // spectrum block of 7, multiplier 4
        const P t282 = t279 + t281;
        const P t283 = shuffled<0, 2>(t217, t172);
        const P t284 = t282 + t283;
        const V t285 = part<1>(t45);
        // spectrum block of 29
        const V t286 = c[34] * t285;
        const P t287 = joined(t163, t286);
        // spectrum block of 7, multiplier 4
        const P t288 = t284 + t287;
        const P t289 = c[3] * t279;
        const P t290 = P(c[1], -c[1]) * t280;
        const P t291 = t289 + t290;
        const P t292 = c[2] * t283;
        const P t293 = t291 - t292;
        const P t294 = t293 + t287;
        const P t295 = shuffled<1, 3>(t181, t208);
        const P t296 = c[6] * t295;
        const P t297 = shuffled<1, 3>(t199, t190);
        const P t298 = c[4] * t297;
        const P t299 = t296 + t298;
        const P t300 = shuffled<1, 3>(t217, t172);
        const P t301 = c[5] * t300;
        const P t302 = t299 + t301;
        const P t303 = flipped<1, 0>(t302);
        const P t304 = t294 + t303;
        const P t305 = t294 - t303;
        const P t306 = c[1] * t279;
        const P t307 = t287 - t306;
        const P t308 = P(c[2], -c[2]) * t280;
        const P t309 = t307 + t308;
        const P t310 = c[3] * t283;
        const P t311 = t309 + t310;
        const P t312 = P(-c[5], c[5]) * t297;
        const P t313 = P(c[4], -c[4]) * t295;
        const P t314 = t312 + t313;
        const P t315 = P(-c[6], c[6]) * t300;
        const P t316 = t314 + t315;
        const P t317 = t311 - t316;
        const P t318 = t311 + t316;
        const P t319 = c[2] * t279;
        const P t320 = t287 - t319;
        const P t321 = P(-c[3], c[3]) * t280;
        const P t322 = t320 + t321;
        const P t323 = c[1] * t283;
        const P t324 = t322 - t323;
        const P t325 = P(-c[6], c[6]) * t297;
        const P t326 = P(c[5], -c[5]) * t295;
        const P t327 = t325 + t326;
        const P t328 = P(c[4], -c[4]) * t300;
        const P t329 = t327 + t328;
        const P t330 = t324 - t329;
        const P t331 = t324 + t329;
        const P t332 = shuffled<0, 2>(t288, t331);
        const P t333 = shuffled<1, 3>(t288, t331);
        // spectrum block of 2
        const P t334 = t332 + t333;
        const P t335 = t332 - t333;
        const P t336 = shuffled<0, 2>(t233, t278);
        // spectrum block of 2
        const P t337 = t334 + t336;
        io.out(1, 20, t337);
        const P t338 = t334 - t336;
        io.out(28, 9, t338);
        const P t339 = shuffled<1, 3>(t233, t278);
        // spectrum block of 2
        const P t340 = t335 + t339;
        io.out(17, 21, t340);
        const P t341 = t335 - t339;
        io.out(12, 8, t341);
        const P t342 = shuffled<0, 2>(t304, t318);
        const P t343 = shuffled<1, 3>(t304, t318);
        // spectrum block of 2
        const P t344 = t342 + t343;
        const P t345 = t342 - t343;
        const P t346 = shuffled<0, 2>(t247, t263);
        // spectrum block of 2
        const P t347 = t344 + t346;
        io.out(23, 25, t347);
        const P t348 = t344 - t346;
        io.out(6, 4, t348);
        const P t349 = shuffled<1, 3>(t247, t263);
        // spectrum block of 2
        const P t350 = t345 + t349;
        io.out(14, 19, t350);
        const P t351 = t345 - t349;
        io.out(15, 10, t351);
        const P t352 = shuffled<0, 2>(t317, t305);
        const P t353 = shuffled<1, 3>(t317, t305);
        // spectrum block of 2
        const P t354 = t352 + t353;
        const P t355 = t352 - t353;
        const P t356 = shuffled<0, 2>(t262, t248);
        // spectrum block of 2
        const P t357 = t354 + t356;
        io.out(7, 24, t357);
        const P t358 = t354 - t356;
        io.out(22, 5, t358);
        const P t359 = shuffled<1, 3>(t262, t248);
        // spectrum block of 2
        const P t360 = t355 + t359;
        io.out(3, 2, t360);
        const P t361 = t355 - t359;
        io.out(26, 27, t361);
        const V t362 = part<0>(t330);
        const V t363 = part<1>(t330);
        // spectrum block of 2
        const V t364 = t362 + t363;
        const V t365 = t362 - t363;
        const P t366 = joined(t364, t365);
        // spectrum block of 2
        const P t367 = t366 + t277;
        io.out(16, 11, t367);
        const P t368 = t366 - t277;
        io.out(13, 18, t368);
        // spectrum block of 29
        const V t369 = x0r + t161;
        io.out(0, t369);
    }
};

}  // namespace zulg
