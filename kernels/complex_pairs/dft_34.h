// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 34.
// Complex DFT of 34 points, prime-factor, order 2, 17; one complex number to a register.
// 159 sums, 139 differences, 108 products of registers, which do the 880 steps of the graph, those with
// `scale` included; 24 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<34> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.506476062234015,  // c[3]: Q[1] of 17
        0.09543059459065593,  // c[4]: P[1] of 17
        0.347088927763506,  // c[5]: P[2] of 17
        0.3809911760447736,  // c[6]: Q[2] of 17
        0.4154752217498508,  // c[7]: -Q[3] of 17
        0.3049677689722511,  // c[8]: P[3] of 17
        0.31717619283272513,  // c[9]: -P[4] of 17
        0.40623178445333147,  // c[10]: -Q[4] of 17
        0.4374199883186445,  // c[11]: P[5] of 17
        0.27255963351038787,  // c[12]: Q[5] of 17
        0.5139020806887744,  // c[13]: P[6] of 17
        0.039110758925753275,  // c[14]: -Q[6] of 17
        0.3101351696520051,  // c[15]: Q[7] of 17
        0.4116323317536197,  // c[16]: P[7] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x17 = io.pair(17);
        // complex block of 2
        const P t0 = x0 + x17;
        const P t1 = x0 - x17;
        const P x2 = io.pair(2);
        const P x19 = io.pair(19);
        // complex block of 2
        const P t2 = x2 + x19;
        const P t3 = x2 - x19;
        const P x4 = io.pair(4);
        const P x21 = io.pair(21);
        // complex block of 2
        const P t4 = x4 + x21;
        const P t5 = x4 - x21;
        const P x6 = io.pair(6);
        const P x23 = io.pair(23);
        // complex block of 2
        const P t6 = x6 + x23;
        const P t7 = x6 - x23;
        const P x8 = io.pair(8);
        const P x25 = io.pair(25);
        // complex block of 2
        const P t8 = x8 + x25;
        const P t9 = x8 - x25;
        const P x10 = io.pair(10);
        const P x27 = io.pair(27);
        // complex block of 2
        const P t10 = x10 + x27;
        const P t11 = x10 - x27;
        const P x12 = io.pair(12);
        const P x29 = io.pair(29);
        // complex block of 2
        const P t12 = x12 + x29;
        const P t13 = x12 - x29;
        const P x14 = io.pair(14);
        const P x31 = io.pair(31);
        // complex block of 2
        const P t14 = x14 + x31;
        const P t15 = x14 - x31;
        const P x16 = io.pair(16);
        const P x33 = io.pair(33);
        // complex block of 2
        const P t16 = x16 + x33;
        const P t17 = x16 - x33;
        const P x18 = io.pair(18);
        const P x1 = io.pair(1);
        // complex block of 2
        const P t18 = x18 + x1;
        const P t19 = x18 - x1;
        const P x20 = io.pair(20);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t20 = x20 + x3;
        const P t21 = x20 - x3;
        const P x22 = io.pair(22);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t22 = x22 + x5;
        const P t23 = x22 - x5;
        const P x24 = io.pair(24);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t24 = x24 + x7;
        const P t25 = x24 - x7;
        const P x26 = io.pair(26);
        const P x9 = io.pair(9);
        // complex block of 2
        const P t26 = x26 + x9;
        const P t27 = x26 - x9;
        const P x28 = io.pair(28);
        const P x11 = io.pair(11);
        // complex block of 2
        const P t28 = x28 + x11;
        const P t29 = x28 - x11;
        const P x30 = io.pair(30);
        const P x13 = io.pair(13);
        // complex block of 2
        const P t30 = x30 + x13;
        const P t31 = x30 - x13;
        const P x32 = io.pair(32);
        const P x15 = io.pair(15);
        // complex block of 2
        const P t32 = x32 + x15;
        const P t33 = x32 - x15;
        // real block of 2
        const P t34 = t2 + t32;
        const P t35 = t2 - t32;
        // real block of 2
        const P t36 = t26 + t8;
        const P t37 = t26 - t8;
        // real block of 2
        const P t38 = t34 + t36;
        const P t39 = t34 - t36;
        // real block of 2
        const P t40 = t6 + t28;
        const P t41 = t6 - t28;
        // real block of 2
        const P t42 = t10 + t24;
        const P t43 = t10 - t24;
        // real block of 2
        const P t44 = t40 + t42;
        const P t45 = t40 - t42;
        // real block of 2
        const P t46 = t18 + t16;
        const P t47 = t18 - t16;
        // real block of 2
        const P t48 = t30 + t4;
        const P t49 = t30 - t4;
        // real block of 2
        const P t50 = t46 + t48;
        const P t51 = t46 - t48;
        // real block of 2
        const P t52 = t20 + t14;
        const P t53 = t20 - t14;
        // real block of 2
        const P t54 = t22 + t12;
        const P t55 = t22 - t12;
        // real block of 2
        const P t56 = t52 + t54;
        const P t57 = t52 - t54;
        // real block of 2
        const P t58 = t38 + t50;
        const P t59 = t38 - t50;
        // real block of 2
        const P t60 = t44 + t56;
        const P t61 = t44 - t56;
        // real block of 2
        const P t62 = t58 + t60;
        const P t63 = t58 - t60;
        // real block of 16
        const P t64 = c[0] * t41;
        const P t65 = c[1] * t43;
        const P t66 = t64 - t65;
        const P t67 = c[0] * t43;
        const P t68 = c[1] * t41;
        const P t69 = t67 + t68;
        const P t70 = t47 - t49;
        const P t71 = t49 + t47;
        const P t72 = c[1] * t53;
        const P t73 = c[0] * t55;
        const P t74 = t72 - t73;
        const P t75 = c[1] * t55;
        const P t76 = c[0] * t53;
        const P t77 = t75 + t76;
        const P t78 = c[2] * t70;
        // complex block of 2
        const P t79 = t35 + t78;
        // real block of 16
        const P t80 = c[2] * t71;
        // complex block of 2
        const P t81 = t37 + t80;
        const P t82 = t35 - t78;
        const P t83 = t80 - t37;
        // complex block of 2
        const P t84 = t66 + t74;
        const P t85 = t69 + t77;
        const P t86 = t66 - t74;
        const P t87 = t77 - t69;
        // complex block of 2
        const P t88 = t79 + t84;
        const P t89 = t81 + t85;
        const P t90 = t79 - t84;
        const P t91 = t85 - t81;
        // complex block of 2
        const P t92 = t82 + t87;
        const P t93 = t83 - t86;
        const P t94 = t82 - t87;
        const P t95 = t83 + t86;
        // skew block of 4
        const P t96 = t45 - t57;
        const P t97 = t45 + t57;
        const P t98 = c[2] * t97;
        const P t99 = t98 - t51;
        const P t100 = c[2] * t96;
        const P t101 = t39 + t100;
        const P t102 = t51 + t98;
        const P t103 = t39 - t100;
        // complex block of 17, multiplier 2
        const P t104 = t0 + t62;
        io.pair(0, t104);
        const P t105 = c[17] * t62;
        const P t106 = t0 - t105;
        const P t107 = shuffled<1, 0>(t88);
        const P t108 = c[3] * t107;
        const P t109 = shuffled<1, 0>(t89);
        const P t110 = c[4] * t109;
        const P t111 = t108 + t110;
        const P t112 = P(-c[3], c[3]) * t109;
        const P t113 = P(c[4], -c[4]) * t107;
        const P t114 = t112 + t113;
        const P t115 = c[5] * t101;
        const P t116 = c[6] * t102;
        const P t117 = t115 + t116;
        const P t118 = c[6] * t101;
        const P t119 = c[5] * t102;
        const P t120 = t118 - t119;
        const P t121 = shuffled<1, 0>(t94);
        const P t122 = P(-c[7], c[7]) * t121;
        const P t123 = shuffled<1, 0>(t95);
        const P t124 = P(c[8], -c[8]) * t123;
        const P t125 = t122 + t124;
        const P t126 = c[7] * t123;
        const P t127 = c[8] * t121;
        const P t128 = t126 + t127;
        const P t129 = c[9] * t59;
        const P t130 = c[10] * t61;
        const P t131 = t129 + t130;
        const P t132 = c[9] * t61;
        const P t133 = c[10] * t59;
        const P t134 = t132 - t133;
        const P t135 = shuffled<1, 0>(t93);
        const P t136 = P(-c[11], c[11]) * t135;
        const P t137 = shuffled<1, 0>(t92);
        const P t138 = P(c[12], -c[12]) * t137;
        const P t139 = t136 + t138;
        const P t140 = c[12] * t135;
        const P t141 = c[11] * t137;
        const P t142 = t140 + t141;
        const P t143 = c[13] * t103;
        const P t144 = c[14] * t99;
        const P t145 = t143 - t144;
        const P t146 = c[13] * t99;
        const P t147 = c[14] * t103;
        const P t148 = t146 + t147;
        const P t149 = shuffled<1, 0>(t90);
        const P t150 = c[15] * t149;
        const P t151 = shuffled<1, 0>(t91);
        const P t152 = c[16] * t151;
        const P t153 = t150 + t152;
        const P t154 = P(-c[15], c[15]) * t151;
        const P t155 = P(c[16], -c[16]) * t149;
        const P t156 = t154 + t155;
        const P t157 = c[18] * t63;
        // spectrum block of 2
        const P t158 = t106 + t157;
        const P t159 = t106 - t157;
        // spectrum block of 2
        const P t160 = t158 - t131;
        const P t161 = t158 + t131;
        // spectrum block of 2
        const P t162 = t159 - t134;
        const P t163 = t159 + t134;
        // complex block of 2
        const P t164 = t114 - t156;
        const P t165 = t111 + t153;
        const P t166 = t114 + t156;
        const P t167 = shuffled<0, 3>(t111, t153);
        const P t168 = shuffled<0, 3>(t153, t111);
        const P t169 = t167 - t168;
        const P t170 = shuffled<0, 3>(t142, t128);
        const P t171 = shuffled<0, 3>(t128, t142);
        // complex block of 2
        const P t172 = t170 - t171;
        const P t173 = t139 + t125;
        const P t174 = t142 + t128;
        const P t175 = t139 - t125;
        // complex block of 2
        const P t176 = t164 + t172;
        const P t177 = flipped<0, 1>(t165);
        const P t178 = t173 + t177;
        const P t179 = t164 - t172;
        const P t180 = flipped<1, 0>(t173);
        const P t181 = t165 + t180;
        // complex block of 2
        const P t182 = t166 + t175;
        const P t183 = flipped<1, 0>(t174);
        const P t184 = t169 + t183;
        const P t185 = t166 - t175;
        const P t186 = t169 - t183;
        // spectrum block of 16
        const P t187 = c[0] * t184;
        const P t188 = c[1] * t182;
        const P t189 = t187 - t188;
        const P t190 = c[0] * t182;
        const P t191 = c[1] * t184;
        const P t192 = t190 + t191;
        const P t193 = flipped<0, 1>(t181);
        const P t194 = t179 + t193;
        const P t195 = t179 - t193;
        const P t196 = c[1] * t186;
        const P t197 = c[0] * t185;
        const P t198 = t196 - t197;
        const P t199 = c[1] * t185;
        const P t200 = c[0] * t186;
        const P t201 = t199 + t200;
        // mirrored skew block of 4
        const P t202 = t117 - t145;
        const P t203 = t120 - t148;
        const P t204 = t117 + t145;
        const P t205 = c[2] * t202;
        const P t206 = c[2] * t203;
        const P t207 = t205 - t206;
        const P t208 = t120 + t148;
        const P t209 = t205 + t206;
        // spectrum block of 2
        const P t210 = t160 + t204;
        const P t211 = t160 - t204;
        // spectrum block of 2
        const P t212 = t210 + t178;
        io.pair(2, t212);
        const P t213 = t210 - t178;
        io.pair(32, t213);
        // spectrum block of 2
        const P t214 = t211 - t176;
        io.pair(8, t214);
        const P t215 = t211 + t176;
        io.pair(26, t215);
        // spectrum block of 2
        const P t216 = t162 + t207;
        const P t217 = t162 - t207;
        // spectrum block of 2
        const P t218 = t216 + t189;
        io.pair(12, t218);
        const P t219 = t216 - t189;
        io.pair(22, t219);
        // spectrum block of 2
        const P t220 = t217 - t192;
        io.pair(14, t220);
        const P t221 = t217 + t192;
        io.pair(20, t221);
        // spectrum block of 2
        const P t222 = t161 - t208;
        const P t223 = t161 + t208;
        // spectrum block of 16
        const P t224 = c[2] * t195;
        // spectrum block of 2
        const P t225 = t222 - t224;
        io.pair(4, t225);
        const P t226 = t222 + t224;
        io.pair(30, t226);
        // spectrum block of 16
        const P t227 = c[2] * t194;
        // spectrum block of 2
        const P t228 = t223 - t227;
        io.pair(16, t228);
        const P t229 = t223 + t227;
        io.pair(18, t229);
        // spectrum block of 2
        const P t230 = t163 - t209;
        const P t231 = t163 + t209;
        // spectrum block of 2
        const P t232 = t230 + t198;
        io.pair(24, t232);
        const P t233 = t230 - t198;
        io.pair(10, t233);
        // spectrum block of 2
        const P t234 = t231 - t201;
        io.pair(28, t234);
        const P t235 = t231 + t201;
        io.pair(6, t235);
        // real block of 2
        const P t236 = t3 + t33;
        const P t237 = t3 - t33;
        // real block of 2
        const P t238 = t27 + t9;
        const P t239 = t27 - t9;
        // real block of 2
        const P t240 = t236 + t238;
        const P t241 = t236 - t238;
        // real block of 2
        const P t242 = t7 + t29;
        const P t243 = t7 - t29;
        // real block of 2
        const P t244 = t11 + t25;
        const P t245 = t11 - t25;
        // real block of 2
        const P t246 = t242 + t244;
        const P t247 = t242 - t244;
        // real block of 2
        const P t248 = t19 + t17;
        const P t249 = t19 - t17;
        // real block of 2
        const P t250 = t31 + t5;
        const P t251 = t31 - t5;
        // real block of 2
        const P t252 = t248 + t250;
        const P t253 = t248 - t250;
        // real block of 2
        const P t254 = t21 + t15;
        const P t255 = t21 - t15;
        // real block of 2
        const P t256 = t23 + t13;
        const P t257 = t23 - t13;
        // real block of 2
        const P t258 = t254 + t256;
        const P t259 = t254 - t256;
        // real block of 2
        const P t260 = t240 + t252;
        const P t261 = t240 - t252;
        // real block of 2
        const P t262 = t246 + t258;
        const P t263 = t246 - t258;
        // real block of 2
        const P t264 = t260 + t262;
        const P t265 = t260 - t262;
        // real block of 16
        const P t266 = c[0] * t243;
        const P t267 = c[1] * t245;
        const P t268 = t266 - t267;
        const P t269 = c[0] * t245;
        const P t270 = c[1] * t243;
        const P t271 = t269 + t270;
        const P t272 = t249 - t251;
        const P t273 = t251 + t249;
        const P t274 = c[1] * t255;
        const P t275 = c[0] * t257;
        const P t276 = t274 - t275;
        const P t277 = c[1] * t257;
        const P t278 = c[0] * t255;
        const P t279 = t277 + t278;
        const P t280 = c[2] * t272;
        // complex block of 2
        const P t281 = t237 + t280;
        // real block of 16
        const P t282 = c[2] * t273;
        // complex block of 2
        const P t283 = t239 + t282;
        const P t284 = t237 - t280;
        const P t285 = t282 - t239;
        // complex block of 2
        const P t286 = t268 + t276;
        const P t287 = t271 + t279;
        const P t288 = t268 - t276;
        const P t289 = t279 - t271;
        // complex block of 2
        const P t290 = t281 + t286;
        const P t291 = t283 + t287;
        const P t292 = t281 - t286;
        const P t293 = t287 - t283;
        // complex block of 2
        const P t294 = t284 + t289;
        const P t295 = t285 - t288;
        const P t296 = t284 - t289;
        const P t297 = t285 + t288;
        // skew block of 4
        const P t298 = t247 - t259;
        const P t299 = t247 + t259;
        const P t300 = c[2] * t299;
        const P t301 = t300 - t253;
        const P t302 = c[2] * t298;
        const P t303 = t241 + t302;
        const P t304 = t253 + t300;
        const P t305 = t241 - t302;
        // complex block of 17, multiplier 2
        const P t306 = t1 + t264;
        io.pair(17, t306);
        const P t307 = c[17] * t264;
        const P t308 = t1 - t307;
        const P t309 = shuffled<1, 0>(t290);
        const P t310 = c[3] * t309;
        const P t311 = shuffled<1, 0>(t291);
        const P t312 = c[4] * t311;
        const P t313 = t310 + t312;
        const P t314 = P(-c[3], c[3]) * t311;
        const P t315 = P(c[4], -c[4]) * t309;
        const P t316 = t314 + t315;
        const P t317 = c[5] * t303;
        const P t318 = c[6] * t304;
        const P t319 = t317 + t318;
        const P t320 = c[6] * t303;
        const P t321 = c[5] * t304;
        const P t322 = t320 - t321;
        const P t323 = shuffled<1, 0>(t296);
        const P t324 = P(-c[7], c[7]) * t323;
        const P t325 = shuffled<1, 0>(t297);
        const P t326 = P(c[8], -c[8]) * t325;
        const P t327 = t324 + t326;
        const P t328 = c[7] * t325;
        const P t329 = c[8] * t323;
        const P t330 = t328 + t329;
        const P t331 = c[9] * t261;
        const P t332 = c[10] * t263;
        const P t333 = t331 + t332;
        const P t334 = c[9] * t263;
        const P t335 = c[10] * t261;
        const P t336 = t334 - t335;
        const P t337 = shuffled<1, 0>(t295);
        const P t338 = P(-c[11], c[11]) * t337;
        const P t339 = shuffled<1, 0>(t294);
        const P t340 = P(c[12], -c[12]) * t339;
        const P t341 = t338 + t340;
        const P t342 = c[12] * t337;
        const P t343 = c[11] * t339;
        const P t344 = t342 + t343;
        const P t345 = c[13] * t305;
        const P t346 = c[14] * t301;
        const P t347 = t345 - t346;
        const P t348 = c[13] * t301;
        const P t349 = c[14] * t305;
        const P t350 = t348 + t349;
        const P t351 = shuffled<1, 0>(t292);
        const P t352 = c[15] * t351;
        const P t353 = shuffled<1, 0>(t293);
        const P t354 = c[16] * t353;
        const P t355 = t352 + t354;
        const P t356 = P(-c[15], c[15]) * t353;
        const P t357 = P(c[16], -c[16]) * t351;
        const P t358 = t356 + t357;
        const P t359 = c[18] * t265;
        // spectrum block of 2
        const P t360 = t308 + t359;
        const P t361 = t308 - t359;
        // spectrum block of 2
        const P t362 = t360 - t333;
        const P t363 = t360 + t333;
        // spectrum block of 2
        const P t364 = t361 - t336;
        const P t365 = t361 + t336;
        // complex block of 2
        const P t366 = t316 - t358;
        const P t367 = t313 + t355;
        const P t368 = t316 + t358;
        const P t369 = shuffled<0, 3>(t313, t355);
        const P t370 = shuffled<0, 3>(t355, t313);
        const P t371 = t369 - t370;
        const P t372 = shuffled<0, 3>(t344, t330);
        const P t373 = shuffled<0, 3>(t330, t344);
        // complex block of 2
        const P t374 = t372 - t373;
        const P t375 = t341 + t327;
        const P t376 = t344 + t330;
        const P t377 = t341 - t327;
        // complex block of 2
        const P t378 = t366 + t374;
        const P t379 = flipped<0, 1>(t367);
        const P t380 = t375 + t379;
        const P t381 = t366 - t374;
        const P t382 = flipped<1, 0>(t375);
        const P t383 = t367 + t382;
        // complex block of 2
        const P t384 = t368 + t377;
        const P t385 = flipped<1, 0>(t376);
        const P t386 = t371 + t385;
        const P t387 = t368 - t377;
        const P t388 = t371 - t385;
        // spectrum block of 16
        const P t389 = c[0] * t386;
        const P t390 = c[1] * t384;
        const P t391 = t389 - t390;
        const P t392 = c[0] * t384;
        const P t393 = c[1] * t386;
        const P t394 = t392 + t393;
        const P t395 = flipped<0, 1>(t383);
        const P t396 = t381 + t395;
        const P t397 = t381 - t395;
        const P t398 = c[1] * t388;
        const P t399 = c[0] * t387;
        const P t400 = t398 - t399;
        const P t401 = c[1] * t387;
        const P t402 = c[0] * t388;
        const P t403 = t401 + t402;
        // mirrored skew block of 4
        const P t404 = t319 - t347;
        const P t405 = t322 - t350;
        const P t406 = t319 + t347;
        const P t407 = c[2] * t404;
        const P t408 = c[2] * t405;
        const P t409 = t407 - t408;
        const P t410 = t322 + t350;
        const P t411 = t407 + t408;
        // spectrum block of 2
        const P t412 = t362 + t406;
        const P t413 = t362 - t406;
        // spectrum block of 2
        const P t414 = t412 + t380;
        io.pair(19, t414);
        const P t415 = t412 - t380;
        io.pair(15, t415);
        // spectrum block of 2
        const P t416 = t413 - t378;
        io.pair(25, t416);
        const P t417 = t413 + t378;
        io.pair(9, t417);
        // spectrum block of 2
        const P t418 = t364 + t409;
        const P t419 = t364 - t409;
        // spectrum block of 2
        const P t420 = t418 + t391;
        io.pair(29, t420);
        const P t421 = t418 - t391;
        io.pair(5, t421);
        // spectrum block of 2
        const P t422 = t419 - t394;
        io.pair(31, t422);
        const P t423 = t419 + t394;
        io.pair(3, t423);
        // spectrum block of 2
        const P t424 = t363 - t410;
        const P t425 = t363 + t410;
        // spectrum block of 16
        const P t426 = c[2] * t397;
        // spectrum block of 2
        const P t427 = t424 - t426;
        io.pair(21, t427);
        const P t428 = t424 + t426;
        io.pair(13, t428);
        // spectrum block of 16
        const P t429 = c[2] * t396;
        // spectrum block of 2
        const P t430 = t425 - t429;
        io.pair(33, t430);
        const P t431 = t425 + t429;
        io.pair(1, t431);
        // spectrum block of 2
        const P t432 = t365 - t411;
        const P t433 = t365 + t411;
        // spectrum block of 2
        const P t434 = t432 + t400;
        io.pair(7, t434);
        const P t435 = t432 - t400;
        io.pair(27, t435);
        // spectrum block of 2
        const P t436 = t433 - t403;
        io.pair(11, t436);
        const P t437 = t433 + t403;
        io.pair(23, t437);
    }
};

}  // namespace zulg
