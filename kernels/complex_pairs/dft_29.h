// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 29.
// Complex DFT of 29 points, Rader block; one complex number to a register.
// 173 sums, 155 differences, 198 products of registers, which do the 1110 steps of the graph, those with
// `scale` included; 20 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<29> {
    static constexpr int steps = 1110;  // with `scale`
    static constexpr double inverseRoot = 0.18569533817705186;  // 1/sqrt(29), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.2670821358430261,  // c[6]: Q[1] of 29
        0.2768145884649087,  // c[7]: P[1] of 29
        0.21129297752958617,  // c[8]: P[2] of 29
        0.32142566997698113,  // c[9]: Q[2] of 29
        0.2491897008367598,  // c[10]: -Q[3] of 29
        0.29302504444220384,  // c[11]: P[3] of 29
        0.3290592701972177,  // c[12]: P[4] of 29
        0.19919633623825483,  // c[13]: Q[4] of 29
        0.27532091814028564,  // c[14]: Q[5] of 29
        0.26862162181749166,  // c[15]: P[5] of 29
        0.13741940099767344,  // c[16]: P[6] of 29
        0.35927022128602587,  // c[17]: Q[6] of 29
        0.3777140697119294,  // c[18]: -Q[7] of 29
        0.07274108340629196,  // c[19]: -P[7] of 29
        0.3205115713047231,  // c[20]: -P[8] of 29
        0.21267702351981235,  // c[21]: Q[8] of 29
        0.38303879792644835,  // c[22]: Q[9] of 29
        0.035220206650882144,  // c[23]: P[9] of 29
        0.37569917287106036,  // c[24]: P[10] of 29
        0.0825185747421179,  // c[25]: -Q[10] of 29
        0.28787780453569184,  // c[26]: Q[11] of 29
        0.25511870438911255,  // c[27]: -P[11] of 29
        0.0870482765930398,  // c[28]: P[12] of 29
        0.37467556794599116,  // c[29]: Q[12] of 29
        0.3714454456857387,  // c[30]: -Q[13] of 29
        0.0999373031094614,  // c[31]: -P[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x28 = io.pair(28);
        // real block of 2
        const P t0 = x1 + x28;
        const P t1 = x1 - x28;
        const P x12 = io.pair(12);
        const P x17 = io.pair(17);
        // real block of 2
        const P t2 = x12 + x17;
        const P t3 = x12 - x17;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x16 = io.pair(16);
        const P x13 = io.pair(13);
        // real block of 2
        const P t6 = x16 + x13;
        const P t7 = x16 - x13;
        const P x18 = io.pair(18);
        const P x11 = io.pair(11);
        // real block of 2
        const P t8 = x18 + x11;
        const P t9 = x18 - x11;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x24 = io.pair(24);
        const P x5 = io.pair(5);
        // real block of 2
        const P t12 = x24 + x5;
        const P t13 = x24 - x5;
        const P x27 = io.pair(27);
        const P x2 = io.pair(2);
        // real block of 2
        const P t14 = x27 + x2;
        const P t15 = x27 - x2;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        const P x7 = io.pair(7);
        const P x22 = io.pair(22);
        // real block of 2
        const P t18 = x7 + x22;
        const P t19 = x7 - x22;
        const P x26 = io.pair(26);
        const P x3 = io.pair(3);
        // real block of 2
        const P t20 = x26 + x3;
        const P t21 = x26 - x3;
        // real block of 2
        const P t22 = t18 + t20;
        const P t23 = t18 - t20;
        const P x25 = io.pair(25);
        const P x4 = io.pair(4);
        // real block of 2
        const P t24 = x25 + x4;
        const P t25 = x25 - x4;
        const P x10 = io.pair(10);
        const P x19 = io.pair(19);
        // real block of 2
        const P t26 = x10 + x19;
        const P t27 = x10 - x19;
        // real block of 2
        const P t28 = t24 + t26;
        const P t29 = t24 - t26;
        const P x23 = io.pair(23);
        const P x6 = io.pair(6);
        // real block of 2
        const P t30 = x23 + x6;
        const P t31 = x23 - x6;
        const P x15 = io.pair(15);
        const P x14 = io.pair(14);
        // real block of 2
        const P t32 = x15 + x14;
        const P t33 = x15 - x14;
        // real block of 2
        const P t34 = t30 + t32;
        const P t35 = t30 - t32;
        const P x20 = io.pair(20);
        const P x9 = io.pair(9);
        // real block of 2
        const P t36 = x20 + x9;
        const P t37 = x20 - x9;
        const P x8 = io.pair(8);
        const P x21 = io.pair(21);
        // real block of 2
        const P t38 = x8 + x21;
        const P t39 = x8 - x21;
        // real block of 2
        const P t40 = t36 + t38;
        const P t41 = t36 - t38;
        // real block of 7, multiplier 4
        const P t42 = t10 + t40;
        const P t43 = t10 - t40;
        const P t44 = t34 + t16;
        const P t45 = t34 - t16;
        const P t46 = t28 + t22;
        const P t47 = t28 - t22;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P t50 = t49 + t4;
        const P t51 = c[0] * t42;
        const P t52 = t4 - t51;
        const P t53 = c[1] * t44;
        const P t54 = t52 + t53;
        const P t55 = c[2] * t46;
        const P t56 = t54 - t55;
        const P t57 = c[3] * t43;
        const P t58 = c[4] * t45;
        const P t59 = t57 + t58;
        const P t60 = c[5] * t47;
        const P t61 = t59 - t60;
        const P t62 = c[1] * t42;
        const P t63 = c[2] * t44;
        const P t64 = t62 - t63;
        const P t65 = c[0] * t46;
        const P t66 = t64 - t65;
        const P t67 = t66 + t4;
        const P t68 = c[5] * t45;
        const P t69 = c[3] * t47;
        const P t70 = t68 + t69;
        const P t71 = c[4] * t43;
        const P t72 = t70 - t71;
        const P t73 = c[2] * t42;
        const P t74 = t4 - t73;
        const P t75 = c[0] * t44;
        const P t76 = t74 - t75;
        const P t77 = c[1] * t46;
        const P t78 = t76 + t77;
        const P t79 = c[5] * t43;
        const P t80 = c[3] * t45;
        const P t81 = t79 + t80;
        const P t82 = c[4] * t47;
        const P t83 = t81 + t82;
        // complex block of 7, multiplier 4
        const P t84 = t7 + t37;
        const P t85 = t9 + t39;
        const P t86 = t7 - t37;
        const P t87 = t9 - t39;
        const P t88 = t31 + t13;
        const P t89 = t33 + t15;
        const P t90 = t31 - t13;
        const P t91 = t33 - t15;
        const P t92 = t25 + t19;
        const P t93 = t27 + t21;
        const P t94 = t25 - t19;
        const P t95 = t27 - t21;
        const P t96 = t84 + t88;
        const P t97 = t96 + t92;
        const P t98 = t85 + t89;
        const P t99 = t98 + t93;
        const P t100 = t97 + t1;
        const P t101 = t99 + t3;
        const P t102 = c[1] * t84;
        const P t103 = c[2] * t88;
        const P t104 = t102 - t103;
        const P t105 = c[0] * t92;
        const P t106 = t104 - t105;
        const P t107 = t106 + t1;
        const P t108 = c[1] * t85;
        const P t109 = c[2] * t89;
        const P t110 = t108 - t109;
        const P t111 = c[0] * t93;
        const P t112 = t110 - t111;
        const P t113 = t112 + t3;
        const P t114 = c[4] * t86;
        const P t115 = c[5] * t90;
        const P t116 = t114 - t115;
        const P t117 = c[3] * t94;
        const P t118 = t116 - t117;
        const P t119 = c[4] * t87;
        const P t120 = c[5] * t91;
        const P t121 = t119 - t120;
        const P t122 = c[3] * t95;
        const P t123 = t121 - t122;
        const P t124 = t107 + t123;
        const P t125 = t113 - t118;
        const P t126 = t107 - t123;
        const P t127 = t113 + t118;
        const P t128 = c[2] * t84;
        const P t129 = t1 - t128;
        const P t130 = c[0] * t88;
        const P t131 = t129 - t130;
        const P t132 = c[1] * t92;
        const P t133 = t131 + t132;
        const P t134 = c[2] * t85;
        const P t135 = t3 - t134;
        const P t136 = c[0] * t89;
        const P t137 = t135 - t136;
        const P t138 = c[1] * t93;
        const P t139 = t137 + t138;
        const P t140 = c[5] * t86;
        const P t141 = c[3] * t90;
        const P t142 = t140 + t141;
        const P t143 = c[4] * t94;
        const P t144 = t142 + t143;
        const P t145 = c[5] * t87;
        const P t146 = c[3] * t91;
        const P t147 = t145 + t146;
        const P t148 = c[4] * t95;
        const P t149 = t147 + t148;
        const P t150 = t133 + t149;
        const P t151 = t139 - t144;
        const P t152 = t133 - t149;
        const P t153 = t139 + t144;
        const P t154 = c[0] * t84;
        const P t155 = t1 - t154;
        const P t156 = c[1] * t88;
        const P t157 = t155 + t156;
        const P t158 = c[2] * t92;
        const P t159 = t157 - t158;
        const P t160 = c[0] * t85;
        const P t161 = t3 - t160;
        const P t162 = c[1] * t89;
        const P t163 = t161 + t162;
        const P t164 = c[2] * t93;
        const P t165 = t163 - t164;
        const P t166 = c[3] * t86;
        const P t167 = c[4] * t90;
        const P t168 = t166 + t167;
        const P t169 = c[5] * t94;
        const P t170 = t168 - t169;
        const P t171 = c[3] * t87;
        const P t172 = c[4] * t91;
        const P t173 = t171 + t172;
        const P t174 = c[5] * t95;
        const P t175 = t173 - t174;
        const P t176 = t159 + t175;
        const P t177 = t165 - t170;
        const P t178 = t159 - t175;
        const P t179 = t165 + t170;
        // real block of 7, multiplier 4
        const P t180 = t11 + t41;
        const P t181 = t11 - t41;
        const P t182 = t35 + t17;
        const P t183 = t35 - t17;
        const P t184 = t29 + t23;
        const P t185 = t29 - t23;
        const P t186 = t180 + t182;
        const P t187 = t186 + t184;
        const P t188 = t187 + t5;
        const P t189 = c[0] * t180;
        const P t190 = t5 - t189;
        const P t191 = c[1] * t182;
        const P t192 = t190 + t191;
        const P t193 = c[2] * t184;
        const P t194 = t192 - t193;
        const P t195 = c[3] * t181;
        const P t196 = c[4] * t183;
        const P t197 = t195 + t196;
        const P t198 = c[5] * t185;
        const P t199 = t197 - t198;
        const P t200 = c[1] * t180;
        const P t201 = c[2] * t182;
        const P t202 = t200 - t201;
        const P t203 = c[0] * t184;
        const P t204 = t202 - t203;
        const P t205 = t204 + t5;
        const P t206 = c[5] * t183;
        const P t207 = c[3] * t185;
        const P t208 = t206 + t207;
        const P t209 = c[4] * t181;
        const P t210 = t208 - t209;
        const P t211 = c[2] * t180;
        const P t212 = t5 - t211;
        const P t213 = c[0] * t182;
        const P t214 = t212 - t213;
        const P t215 = c[1] * t184;
        const P t216 = t214 + t215;
        const P t217 = c[5] * t181;
        const P t218 = c[3] * t183;
        const P t219 = t217 + t218;
        const P t220 = c[4] * t185;
        const P t221 = t219 + t220;
        const P x0 = io.pair(0);
        // complex block of 29
        const P t222 = x0 + t50;
        io.pair(0, t222);
        const P t223 = c[32] * t50;
        const P t224 = x0 - t223;
        const P t225 = shuffled<1, 0>(t126);
        const P t226 = c[6] * t225;
        const P t227 = shuffled<1, 0>(t127);
        const P t228 = c[7] * t227;
        const P t229 = t226 + t228;
        const P t230 = P(-c[6], c[6]) * t227;
        const P t231 = P(c[7], -c[7]) * t225;
        const P t232 = t230 + t231;
        const P t233 = c[8] * t216;
        const P t234 = c[9] * t221;
        const P t235 = t233 + t234;
        const P t236 = c[9] * t216;
        const P t237 = c[8] * t221;
        const P t238 = t236 - t237;
        const P t239 = shuffled<1, 0>(t176);
        const P t240 = c[10] * t239;
        const P t241 = shuffled<1, 0>(t177);
        const P t242 = c[11] * t241;
        const P t243 = t240 + t242;
        const P t244 = P(-c[10], c[10]) * t241;
        const P t245 = P(c[11], -c[11]) * t239;
        const P t246 = t244 + t245;
        const P t247 = c[12] * t56;
        const P t248 = c[13] * t61;
        const P t249 = t247 - t248;
        const P t250 = c[12] * t61;
        const P t251 = c[13] * t56;
        const P t252 = t250 + t251;
        const P t253 = shuffled<1, 0>(t150);
        const P t254 = c[14] * t253;
        const P t255 = shuffled<1, 0>(t151);
        const P t256 = c[15] * t255;
        const P t257 = t254 + t256;
        const P t258 = P(-c[14], c[14]) * t255;
        const P t259 = P(c[15], -c[15]) * t253;
        const P t260 = t258 + t259;
        const P t261 = c[16] * t205;
        const P t262 = c[17] * t210;
        const P t263 = t261 + t262;
        const P t264 = c[17] * t205;
        const P t265 = c[16] * t210;
        const P t266 = t264 - t265;
        const P t267 = shuffled<1, 0>(t100);
        const P t268 = P(-c[18], c[18]) * t267;
        const P t269 = shuffled<1, 0>(t101);
        const P t270 = P(c[19], -c[19]) * t269;
        const P t271 = t268 + t270;
        const P t272 = c[18] * t269;
        const P t273 = c[19] * t267;
        const P t274 = t272 + t273;
        const P t275 = c[20] * t67;
        const P t276 = c[21] * t72;
        const P t277 = t275 + t276;
        const P t278 = c[21] * t67;
        const P t279 = c[20] * t72;
        const P t280 = t278 - t279;
        const P t281 = shuffled<1, 0>(t152);
        const P t282 = c[22] * t281;
        const P t283 = shuffled<1, 0>(t153);
        const P t284 = c[23] * t283;
        const P t285 = t282 + t284;
        const P t286 = P(-c[22], c[22]) * t283;
        const P t287 = P(c[23], -c[23]) * t281;
        const P t288 = t286 + t287;
        const P t289 = c[24] * t194;
        const P t290 = c[25] * t199;
        const P t291 = t289 - t290;
        const P t292 = c[24] * t199;
        const P t293 = c[25] * t194;
        const P t294 = t292 + t293;
        const P t295 = shuffled<1, 0>(t178);
        const P t296 = c[26] * t295;
        const P t297 = shuffled<1, 0>(t179);
        const P t298 = c[27] * t297;
        const P t299 = t296 + t298;
        const P t300 = P(-c[27], c[27]) * t295;
        const P t301 = P(c[26], -c[26]) * t297;
        const P t302 = t300 + t301;
        const P t303 = c[28] * t78;
        const P t304 = c[29] * t83;
        const P t305 = t303 - t304;
        const P t306 = c[28] * t83;
        const P t307 = c[29] * t78;
        const P t308 = t306 + t307;
        const P t309 = shuffled<1, 0>(t124);
        const P t310 = c[30] * t309;
        const P t311 = shuffled<1, 0>(t125);
        const P t312 = c[31] * t311;
        const P t313 = t310 + t312;
        const P t314 = P(-c[31], c[31]) * t309;
        const P t315 = P(c[30], -c[30]) * t311;
        const P t316 = t314 + t315;
        const P t317 = c[33] * t188;
        // spectrum block of 2
        const P t318 = t224 + t317;
        const P t319 = t224 - t317;
        // spectrum block of 2
        const P t320 = t318 + t271;
        const P t321 = t318 - t271;
        const P t322 = flipped<1, 0>(t274);
        // spectrum block of 2
        const P t323 = t319 + t322;
        const P t324 = t319 - t322;
        // complex block of 2
        const P t325 = t252 + t294;
        const P t326 = t249 + t291;
        const P t327 = t252 - t294;
        const P t328 = t249 - t291;
        // complex block of 2
        const P t329 = t302 - t246;
        const P t330 = shuffled<0, 3>(t299, t243);
        const P t331 = shuffled<0, 3>(t243, t299);
        const P t332 = t330 - t331;
        const P t333 = t302 + t246;
        const P t334 = t299 + t243;
        // complex block of 2
        const P t335 = t325 + t329;
        const P t336 = t326 + t332;
        const P t337 = t325 - t329;
        const P t338 = t326 - t332;
        const P t339 = flipped<1, 0>(t334);
        // complex block of 2
        const P t340 = t327 + t339;
        const P t341 = t328 + t333;
        const P t342 = t327 - t339;
        const P t343 = t328 - t333;
        // complex block of 2
        const P t344 = t280 - t266;
        const P t345 = t263 - t277;
        const P t346 = t280 + t266;
        const P t347 = t277 + t263;
        // complex block of 2
        const P t348 = t232 - t316;
        const P t349 = shuffled<0, 3>(t229, t313);
        const P t350 = shuffled<0, 3>(t313, t229);
        const P t351 = t349 - t350;
        const P t352 = t316 + t232;
        const P t353 = t313 + t229;
        // complex block of 2
        const P t354 = t344 + t348;
        const P t355 = t345 + t351;
        const P t356 = t344 - t348;
        const P t357 = t345 - t351;
        const P t358 = flipped<0, 1>(t353);
        // complex block of 2
        const P t359 = t346 + t358;
        const P t360 = t347 + t352;
        const P t361 = t346 - t358;
        const P t362 = t352 - t347;
        // complex block of 2
        const P t363 = t308 - t238;
        const P t364 = t305 + t235;
        const P t365 = t308 + t238;
        const P t366 = t305 - t235;
        // complex block of 2
        const P t367 = t260 - t288;
        const P t368 = t285 + t257;
        const P t369 = t288 + t260;
        const P t370 = shuffled<0, 3>(t285, t257);
        const P t371 = shuffled<0, 3>(t257, t285);
        const P t372 = t370 - t371;
        // complex block of 2
        const P t373 = t363 + t367;
        const P t374 = flipped<0, 1>(t368);
        const P t375 = t364 + t374;
        const P t376 = t363 - t367;
        const P t377 = t364 - t374;
        // complex block of 2
        const P t378 = t365 - t372;
        const P t379 = t366 - t369;
        const P t380 = t365 + t372;
        const P t381 = t366 + t369;
        // spectrum block of 7, multiplier 4
        const P t382 = t336 + t355;
        const P t383 = t382 + t375;
        const P t384 = t383 + t320;
        io.pair(1, t384);
        const P t385 = c[1] * t336;
        const P t386 = c[2] * t355;
        const P t387 = t385 - t386;
        const P t388 = c[0] * t375;
        const P t389 = t387 - t388;
        const P t390 = t389 + t320;
        const P t391 = c[4] * t335;
        const P t392 = c[5] * t354;
        const P t393 = t391 + t392;
        const P t394 = c[3] * t373;
        const P t395 = t393 + t394;
        const P t396 = t390 - t395;
        io.pair(23, t396);
        const P t397 = t390 + t395;
        io.pair(24, t397);
        const P t398 = c[2] * t336;
        const P t399 = t320 - t398;
        const P t400 = c[0] * t355;
        const P t401 = t399 - t400;
        const P t402 = c[1] * t375;
        const P t403 = t401 + t402;
        const P t404 = c[5] * t335;
        const P t405 = c[3] * t354;
        const P t406 = t404 - t405;
        const P t407 = c[4] * t373;
        const P t408 = t406 - t407;
        const P t409 = t403 - t408;
        io.pair(7, t409);
        const P t410 = t403 + t408;
        io.pair(25, t410);
        const P t411 = c[0] * t336;
        const P t412 = t320 - t411;
        const P t413 = c[1] * t355;
        const P t414 = t412 + t413;
        const P t415 = c[2] * t375;
        const P t416 = t414 - t415;
        const P t417 = c[3] * t335;
        const P t418 = c[4] * t354;
        const P t419 = t417 - t418;
        const P t420 = c[5] * t373;
        const P t421 = t419 + t420;
        const P t422 = t416 - t421;
        io.pair(16, t422);
        const P t423 = t416 + t421;
        io.pair(20, t423);
        // spectrum block of 7, multiplier 4
        const P t424 = t341 - t360;
        const P t425 = t424 + t379;
        const P t426 = t425 + t323;
        io.pair(17, t426);
        const P t427 = c[1] * t341;
        const P t428 = c[2] * t360;
        const P t429 = t427 + t428;
        const P t430 = c[0] * t379;
        const P t431 = t429 - t430;
        const P t432 = t431 + t323;
        const P t433 = c[4] * t340;
        const P t434 = c[5] * t359;
        const P t435 = t433 + t434;
        const P t436 = c[3] * t378;
        const P t437 = t435 + t436;
        const P t438 = t432 - t437;
        io.pair(14, t438);
        const P t439 = t432 + t437;
        io.pair(2, t439);
        const P t440 = c[2] * t341;
        const P t441 = t323 - t440;
        const P t442 = c[0] * t360;
        const P t443 = t441 + t442;
        const P t444 = c[1] * t379;
        const P t445 = t443 + t444;
        const P t446 = c[5] * t340;
        const P t447 = c[3] * t359;
        const P t448 = t446 - t447;
        const P t449 = c[4] * t378;
        const P t450 = t448 - t449;
        const P t451 = t445 - t450;
        io.pair(3, t451);
        const P t452 = t445 + t450;
        io.pair(19, t452);
        const P t453 = c[0] * t341;
        const P t454 = t323 - t453;
        const P t455 = c[1] * t360;
        const P t456 = t454 - t455;
        const P t457 = c[2] * t379;
        const P t458 = t456 - t457;
        const P t459 = c[3] * t340;
        const P t460 = c[4] * t359;
        const P t461 = t459 - t460;
        const P t462 = c[5] * t378;
        const P t463 = t461 + t462;
        const P t464 = t458 - t463;
        io.pair(11, t464);
        const P t465 = t458 + t463;
        io.pair(21, t465);
        // spectrum block of 7, multiplier 4
        const P t466 = t338 + t357;
        const P t467 = t466 + t377;
        const P t468 = t467 + t321;
        io.pair(28, t468);
        const P t469 = c[1] * t338;
        const P t470 = c[2] * t357;
        const P t471 = t469 - t470;
        const P t472 = c[0] * t377;
        const P t473 = t471 - t472;
        const P t474 = t473 + t321;
        const P t475 = c[4] * t337;
        const P t476 = c[5] * t356;
        const P t477 = t475 + t476;
        const P t478 = c[3] * t376;
        const P t479 = t477 + t478;
        const P t480 = t474 - t479;
        io.pair(6, t480);
        const P t481 = t474 + t479;
        io.pair(5, t481);
        const P t482 = c[2] * t338;
        const P t483 = t321 - t482;
        const P t484 = c[0] * t357;
        const P t485 = t483 - t484;
        const P t486 = c[1] * t377;
        const P t487 = t485 + t486;
        const P t488 = c[5] * t337;
        const P t489 = c[3] * t356;
        const P t490 = t488 - t489;
        const P t491 = c[4] * t376;
        const P t492 = t490 - t491;
        const P t493 = t487 - t492;
        io.pair(22, t493);
        const P t494 = t487 + t492;
        io.pair(4, t494);
        const P t495 = c[0] * t338;
        const P t496 = t321 - t495;
        const P t497 = c[1] * t357;
        const P t498 = t496 + t497;
        const P t499 = c[2] * t377;
        const P t500 = t498 - t499;
        const P t501 = c[3] * t337;
        const P t502 = c[4] * t356;
        const P t503 = t501 - t502;
        const P t504 = c[5] * t376;
        const P t505 = t503 + t504;
        const P t506 = t500 - t505;
        io.pair(13, t506);
        const P t507 = t500 + t505;
        io.pair(9, t507);
        // spectrum block of 7, multiplier 4
        const P t508 = t343 + t362;
        const P t509 = t508 + t381;
        const P t510 = t509 + t324;
        io.pair(12, t510);
        const P t511 = c[1] * t343;
        const P t512 = c[2] * t362;
        const P t513 = t511 - t512;
        const P t514 = c[0] * t381;
        const P t515 = t513 - t514;
        const P t516 = t515 + t324;
        const P t517 = c[4] * t342;
        const P t518 = c[5] * t361;
        const P t519 = t517 + t518;
        const P t520 = c[3] * t380;
        const P t521 = t519 + t520;
        const P t522 = t516 - t521;
        io.pair(15, t522);
        const P t523 = t516 + t521;
        io.pair(27, t523);
        const P t524 = c[2] * t343;
        const P t525 = t324 - t524;
        const P t526 = c[0] * t362;
        const P t527 = t525 - t526;
        const P t528 = c[1] * t381;
        const P t529 = t527 + t528;
        const P t530 = c[5] * t342;
        const P t531 = c[3] * t361;
        const P t532 = t530 - t531;
        const P t533 = c[4] * t380;
        const P t534 = t532 - t533;
        const P t535 = t529 - t534;
        io.pair(26, t535);
        const P t536 = t529 + t534;
        io.pair(10, t536);
        const P t537 = c[0] * t343;
        const P t538 = t324 - t537;
        const P t539 = c[1] * t362;
        const P t540 = t538 + t539;
        const P t541 = c[2] * t381;
        const P t542 = t540 - t541;
        const P t543 = c[3] * t342;
        const P t544 = c[4] * t361;
        const P t545 = t543 - t544;
        const P t546 = c[5] * t380;
        const P t547 = t545 + t546;
        const P t548 = t542 - t547;
        io.pair(18, t548);
        const P t549 = t542 + t547;
        io.pair(8, t549);
    }
};

}  // namespace zulg
