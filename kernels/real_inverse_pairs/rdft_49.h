// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 49.
// Inverse DFT to 49 real points, twiddled 7, 7; two lanes to a register.
// 132 sums, 74 differences, 186 products of registers, which do the 829 steps of the graph, those with
// `scale` included; 64 shuffles, 23 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<49> {
    static constexpr int steps = 829;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 1/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 3/7
        0.7183493500977276,  // c[7]: cos 2 pi 43/49
        0.6956825506034864,  // c[8]: -sin 2 pi 43/49
        0.03205157757165517,  // c[9]: cos 2 pi 37/49
        0.9994862162006879,  // c[10]: -sin 2 pi 37/49
        0.9672948630390295,  // c[11]: cos 2 pi 47/49
        0.2536545839095074,  // c[12]: -sin 2 pi 47/49
        0.9269167573460217,  // c[13]: cos 2 pi 46/49
        0.37526700487937414,  // c[14]: -sin 2 pi 46/49
        0.8713187041233893,  // c[15]: cos 2 pi 45/49
        0.4907175520039379,  // c[16]: -sin 2 pi 45/49
        0.7402779970753155,  // c[17]: -sin 2 pi 31/49
        0.6723008902613168,  // c[18]: -cos 2 pi 31/49
        0.9917900138232462,  // c[19]: cos 2 pi 48/49
        0.12787716168450602,  // c[20]: -sin 2 pi 48/49
        0.8014136218679566,  // c[21]: cos 2 pi 44/49
        0.598110530491216,  // c[22]: -sin 2 pi 44/49
        0.518392568310525,  // c[23]: cos 2 pi 41/49
        0.8551427630053462,  // c[24]: -sin 2 pi 41/49
        0.28452758663103245,  // c[25]: cos 2 pi 39/49
        0.9586678530366606,  // c[26]: -sin 2 pi 39/49
        0.40478334312239383,  // c[27]: cos 2 pi 40/49
        0.9144126230158125,  // c[28]: -sin 2 pi 40/49
        0.9384684220497604,  // c[29]: -sin 2 pi 34/49
        0.3453650544213076,  // c[30]: -cos 2 pi 34/49
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x8 = io.pair(8);
        // doubled bins
        const P t0 = c[0] * x8;
        const P x6 = io.pair(6);
        const P t1 = P(c[0], -c[0]) * x6;
        // complex block of 7
        const P t2 = t0 + t1;
        const P x15 = io.pair(15);
        // doubled bins
        const P t3 = c[0] * x15;
        const P x13 = io.pair(13);
        const P t4 = P(c[0], -c[0]) * x13;
        // complex block of 7
        const P t5 = t3 + t4;
        const P t6 = c[1] * t2;
        const P t7 = c[2] * t5;
        const P t8 = t6 - t7;
        const P x22 = io.pair(22);
        // doubled bins
        const P t9 = c[0] * x22;
        const P x20 = io.pair(20);
        const P t10 = P(c[0], -c[0]) * x20;
        // complex block of 7
        const P t11 = t9 + t10;
        const P t12 = c[3] * t11;
        const P t13 = t8 - t12;
        const P x1 = io.pair(1);
        // doubled bins
        const P t14 = c[0] * x1;
        // complex block of 7
        const P t15 = t13 + t14;
        const P t16 = t0 - t1;
        const P t17 = flipped<0, 1>(t4);
        const P t18 = flipped<1, 0>(t3);
        const P t19 = t17 + t18;
        const P t20 = c[4] * t16;
        const P t21 = P(-c[5], c[5]) * t19;
        const P t22 = t20 + t21;
        const P t23 = flipped<0, 1>(t10);
        const P t24 = flipped<1, 0>(t9);
        const P t25 = t23 + t24;
        const P t26 = P(-c[6], c[6]) * t25;
        const P t27 = t22 + t26;
        const P t28 = shuffled<1, 0>(t27);
        const P t29 = flipped<0, 1>(t28);
        const P t30 = t15 + t29;
        // spectrum block of 49
        const P t31 = c[7] * t30;
        const P t32 = shuffled<1, 0>(t30);
        const P t33 = P(-c[8], c[8]) * t32;
        const P t34 = t31 + t33;
        const P x9 = io.pair(9);
        // doubled bins
        const P t35 = c[0] * x9;
        const P x5 = io.pair(5);
        const P t36 = P(c[0], -c[0]) * x5;
        // complex block of 7
        const P t37 = t35 + t36;
        const P x16 = io.pair(16);
        // doubled bins
        const P t38 = c[0] * x16;
        const P x12 = io.pair(12);
        const P t39 = P(c[0], -c[0]) * x12;
        // complex block of 7
        const P t40 = t38 + t39;
        const P t41 = c[1] * t37;
        const P t42 = c[2] * t40;
        const P t43 = t41 - t42;
        const P x23 = io.pair(23);
        // doubled bins
        const P t44 = c[0] * x23;
        const P x19 = io.pair(19);
        const P t45 = P(c[0], -c[0]) * x19;
        // complex block of 7
        const P t46 = t44 + t45;
        const P t47 = c[3] * t46;
        const P t48 = t43 - t47;
        const P x2 = io.pair(2);
        // doubled bins
        const P t49 = c[0] * x2;
        // complex block of 7
        const P t50 = t48 + t49;
        const P t51 = t35 - t36;
        const P t52 = flipped<0, 1>(t39);
        const P t53 = flipped<1, 0>(t38);
        const P t54 = t52 + t53;
        const P t55 = c[4] * t51;
        const P t56 = P(-c[5], c[5]) * t54;
        const P t57 = t55 + t56;
        const P t58 = flipped<0, 1>(t45);
        const P t59 = flipped<1, 0>(t44);
        const P t60 = t58 + t59;
        const P t61 = P(-c[6], c[6]) * t60;
        const P t62 = t57 + t61;
        const P t63 = shuffled<1, 0>(t62);
        const P t64 = flipped<0, 1>(t63);
        const P t65 = t50 + t64;
        // spectrum block of 49
        const P t66 = c[9] * t65;
        const P t67 = shuffled<1, 0>(t65);
        const P t68 = P(-c[10], c[10]) * t67;
        const P t69 = t66 + t68;
        const P x7 = io.pair(7);
        // doubled bins
        const P t70 = c[0] * x7;
        const P t71 = shuffled<0, 2>(t70, t34);
        // spectrum block of 7
        const P t72 = c[1] * t71;
        const P x14 = io.pair(14);
        // doubled bins
        const P t73 = c[0] * x14;
        const P t74 = shuffled<0, 2>(t73, t69);
        // spectrum block of 7
        const P t75 = c[2] * t74;
        const P t76 = t72 - t75;
        const P x10 = io.pair(10);
        // doubled bins
        const P t77 = c[0] * x10;
        const P x4 = io.pair(4);
        const P t78 = P(c[0], -c[0]) * x4;
        // complex block of 7
        const P t79 = t77 + t78;
        const P x17 = io.pair(17);
        // doubled bins
        const P t80 = c[0] * x17;
        const P x11 = io.pair(11);
        const P t81 = P(c[0], -c[0]) * x11;
        // complex block of 7
        const P t82 = t80 + t81;
        const P t83 = c[1] * t79;
        const P t84 = c[2] * t82;
        const P t85 = t83 - t84;
        const P x24 = io.pair(24);
        // doubled bins
        const P t86 = c[0] * x24;
        const P x18 = io.pair(18);
        const P t87 = P(c[0], -c[0]) * x18;
        // complex block of 7
        const P t88 = t86 + t87;
        const P t89 = c[3] * t88;
        const P t90 = t85 - t89;
        const P x3 = io.pair(3);
        // doubled bins
        const P t91 = c[0] * x3;
        // complex block of 7
        const P t92 = t90 + t91;
        const P t93 = t77 - t78;
        const P t94 = flipped<0, 1>(t81);
        const P t95 = flipped<1, 0>(t80);
        const P t96 = t94 + t95;
        const P t97 = c[4] * t93;
        const P t98 = P(-c[5], c[5]) * t96;
        const P t99 = t97 + t98;
        const P t100 = flipped<0, 1>(t87);
        const P t101 = flipped<1, 0>(t86);
        const P t102 = t100 + t101;
        const P t103 = P(-c[6], c[6]) * t102;
        const P t104 = t99 + t103;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = flipped<0, 1>(t105);
        const P t107 = t92 + t106;
        const P t108 = shuffled<1, 0>(t107);
        // spectrum block of 49
        const P t109 = c[17] * t108;
        const P t110 = P(c[18], -c[18]) * t107;
        const P t111 = t109 + t110;
        const P x21 = io.pair(21);
        // doubled bins
        const P t112 = c[0] * x21;
        const P t113 = shuffled<0, 2>(t112, t111);
        // spectrum block of 7
        const P t114 = P(-c[3], c[3]) * t113;
        const P t115 = t76 + t114;
        const V t116 = part<0>(t115);
        const V x0r = io.re(0);
        const V t117 = t116 + x0r;
        const P t118 = shuffled<1, 3>(t70, t34);
        const P t119 = c[4] * t118;
        const P t120 = shuffled<1, 3>(t73, t69);
        const P t121 = c[5] * t120;
        const P t122 = t119 + t121;
        const P t123 = shuffled<1, 3>(t112, t111);
        const P t124 = c[6] * t123;
        const P t125 = t122 + t124;
        const V t126 = part<0>(t125);
        const V t127 = t117 + t126;
        // complex block of 7
        const P t128 = t2 + t5;
        const P t129 = t128 + t11;
        const P t130 = t129 + t14;
        const P t131 = t15 - t29;
        const P t132 = c[2] * t2;
        const P t133 = t14 - t132;
        const P t134 = c[3] * t5;
        const P t135 = t133 - t134;
        const P t136 = c[1] * t11;
        const P t137 = t135 + t136;
        const P t138 = c[5] * t16;
        const P t139 = P(c[6], -c[6]) * t19;
        const P t140 = t138 + t139;
        const P t141 = P(c[4], -c[4]) * t25;
        const P t142 = t140 + t141;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = flipped<1, 0>(t143);
        const P t145 = t137 + t144;
        const P t146 = t137 - t144;
        const P t147 = c[3] * t2;
        const P t148 = t14 - t147;
        const P t149 = c[1] * t5;
        const P t150 = t148 + t149;
        const P t151 = c[2] * t11;
        const P t152 = t150 - t151;
        const P t153 = c[6] * t16;
        const P t154 = P(c[4], -c[4]) * t19;
        const P t155 = t153 + t154;
        const P t156 = P(-c[5], c[5]) * t25;
        const P t157 = t155 + t156;
        const P t158 = shuffled<1, 0>(t157);
        const P t159 = flipped<1, 0>(t158);
        const P t160 = t152 + t159;
        const P t161 = t152 - t159;
        // spectrum block of 49
        const P t162 = c[19] * t131;
        const P t163 = shuffled<1, 0>(t131);
        const P t164 = P(-c[20], c[20]) * t163;
        const P t165 = t162 + t164;
        const P t166 = c[11] * t145;
        const P t167 = shuffled<1, 0>(t145);
        const P t168 = P(-c[12], c[12]) * t167;
        const P t169 = t166 + t168;
        const P t170 = c[13] * t160;
        const P t171 = shuffled<1, 0>(t160);
        const P t172 = P(-c[14], c[14]) * t171;
        const P t173 = t170 + t172;
        const P t174 = c[15] * t161;
        const P t175 = shuffled<1, 0>(t161);
        const P t176 = P(-c[16], c[16]) * t175;
        const P t177 = t174 + t176;
        const P t178 = c[21] * t146;
        const P t179 = shuffled<1, 0>(t146);
        const P t180 = P(-c[22], c[22]) * t179;
        const P t181 = t178 + t180;
        // complex block of 7
        const P t182 = t37 + t40;
        const P t183 = t182 + t46;
        const P t184 = t183 + t49;
        const P t185 = t50 - t64;
        const P t186 = c[2] * t37;
        const P t187 = t49 - t186;
        const P t188 = c[3] * t40;
        const P t189 = t187 - t188;
        const P t190 = c[1] * t46;
        const P t191 = t189 + t190;
        const P t192 = c[5] * t51;
        const P t193 = P(c[6], -c[6]) * t54;
        const P t194 = t192 + t193;
        const P t195 = P(c[4], -c[4]) * t60;
        const P t196 = t194 + t195;
        const P t197 = shuffled<1, 0>(t196);
        const P t198 = flipped<1, 0>(t197);
        const P t199 = t191 + t198;
        const P t200 = t191 - t198;
        const P t201 = c[3] * t37;
        const P t202 = t49 - t201;
        const P t203 = c[1] * t40;
        const P t204 = t202 + t203;
        const P t205 = c[2] * t46;
        const P t206 = t204 - t205;
        const P t207 = c[6] * t51;
        const P t208 = P(c[4], -c[4]) * t54;
        const P t209 = t207 + t208;
        const P t210 = P(-c[5], c[5]) * t60;
        const P t211 = t209 + t210;
        const P t212 = shuffled<1, 0>(t211);
        const P t213 = flipped<1, 0>(t212);
        const P t214 = t206 + t213;
        const P t215 = t206 - t213;
        // spectrum block of 49
        const P t216 = c[11] * t185;
        const P t217 = shuffled<1, 0>(t185);
        const P t218 = P(-c[12], c[12]) * t217;
        const P t219 = t216 + t218;
        const P t220 = c[15] * t199;
        const P t221 = shuffled<1, 0>(t199);
        const P t222 = P(-c[16], c[16]) * t221;
        const P t223 = t220 + t222;
        const P t224 = c[7] * t214;
        const P t225 = shuffled<1, 0>(t214);
        const P t226 = P(-c[8], c[8]) * t225;
        const P t227 = t224 + t226;
        const P t228 = c[23] * t215;
        const P t229 = shuffled<1, 0>(t215);
        const P t230 = P(-c[24], c[24]) * t229;
        const P t231 = t228 + t230;
        const P t232 = c[25] * t200;
        const P t233 = shuffled<1, 0>(t200);
        const P t234 = P(-c[26], c[26]) * t233;
        const P t235 = t232 + t234;
        // complex block of 7
        const P t236 = t79 + t82;
        const P t237 = t236 + t88;
        const P t238 = t237 + t91;
        const P t239 = t92 - t106;
        const P t240 = c[2] * t79;
        const P t241 = t91 - t240;
        const P t242 = c[3] * t82;
        const P t243 = t241 - t242;
        const P t244 = c[1] * t88;
        const P t245 = t243 + t244;
        const P t246 = c[5] * t93;
        const P t247 = P(c[6], -c[6]) * t96;
        const P t248 = t246 + t247;
        const P t249 = P(c[4], -c[4]) * t102;
        const P t250 = t248 + t249;
        const P t251 = shuffled<1, 0>(t250);
        const P t252 = flipped<1, 0>(t251);
        const P t253 = t245 + t252;
        const P t254 = t245 - t252;
        const P t255 = c[3] * t79;
        const P t256 = t91 - t255;
        const P t257 = c[1] * t82;
        const P t258 = t256 + t257;
        const P t259 = c[2] * t88;
        const P t260 = t258 - t259;
        const P t261 = c[6] * t93;
        const P t262 = P(c[4], -c[4]) * t96;
        const P t263 = t261 + t262;
        const P t264 = P(-c[5], c[5]) * t102;
        const P t265 = t263 + t264;
        const P t266 = shuffled<1, 0>(t265);
        const P t267 = flipped<1, 0>(t266);
        const P t268 = t260 + t267;
        const P t269 = t260 - t267;
        // spectrum block of 49
        const P t270 = c[13] * t239;
        const P t271 = shuffled<1, 0>(t239);
        const P t272 = P(-c[14], c[14]) * t271;
        const P t273 = t270 + t272;
        const P t274 = c[7] * t253;
        const P t275 = shuffled<1, 0>(t253);
        const P t276 = P(-c[8], c[8]) * t275;
        const P t277 = t274 + t276;
        const P t278 = c[27] * t268;
        const P t279 = shuffled<1, 0>(t268);
        const P t280 = P(-c[28], c[28]) * t279;
        const P t281 = t278 + t280;
        const P t282 = c[9] * t269;
        const P t283 = shuffled<1, 0>(t269);
        const P t284 = P(-c[10], c[10]) * t283;
        const P t285 = t282 + t284;
        const P t286 = shuffled<1, 0>(t254);
        const P t287 = c[29] * t286;
        const P t288 = P(c[30], -c[30]) * t254;
        const P t289 = t287 + t288;
        const P t290 = shuffled<0, 2>(t130, t165);
        const P t291 = shuffled<0, 2>(t184, t219);
        // spectrum block of 7
        const P t292 = t290 + t291;
        const P t293 = shuffled<0, 2>(t238, t273);
        const P t294 = t292 + t293;
        // spectrum block of 7
        const P t295 = t71 + t74;
        const P t296 = flipped<0, 1>(t113);
        const P t297 = t295 + t296;
        const P t298 = joined(x0r, t127);
        const P t299 = t297 + t298;
        const V t300 = part<1>(t299);
        io.out(6, t300);
        const V t301 = part<1>(t115);
        // spectrum block of 7
        const V t302 = t301 + t127;
        const P t303 = joined(t117, t302);
        // spectrum block of 7
        const P t304 = t303 - t125;
        const V t305 = part<1>(t304);
        io.out(13, t305);
        const P t306 = shuffled<0, 2>(t299, t304);
        // spectrum block of 7
        const P t307 = t294 + t306;
        io.out(0, 1, t307);
        const P t308 = c[1] * t290;
        const P t309 = c[2] * t291;
        const P t310 = t308 - t309;
        const P t311 = c[3] * t293;
        const P t312 = t310 - t311;
        const P t313 = t312 + t306;
        const P t314 = shuffled<1, 3>(t130, t165);
        const P t315 = c[4] * t314;
        const P t316 = shuffled<1, 3>(t184, t219);
        const P t317 = c[5] * t316;
        const P t318 = t315 + t317;
        const P t319 = shuffled<1, 3>(t238, t273);
        const P t320 = c[6] * t319;
        const P t321 = t318 + t320;
        const P t322 = t313 - t321;
        io.out(7, 8, t322);
        const P t323 = t313 + t321;
        io.out(42, 43, t323);
        const P t324 = c[2] * t290;
        const P t325 = t306 - t324;
        const P t326 = c[3] * t291;
        const P t327 = t325 - t326;
        const P t328 = c[1] * t293;
        const P t329 = t327 + t328;
        const P t330 = c[5] * t314;
        const P t331 = c[6] * t316;
        const P t332 = t330 - t331;
        const P t333 = c[4] * t319;
        const P t334 = t332 - t333;
        const P t335 = t329 - t334;
        io.out(14, 15, t335);
        const P t336 = t329 + t334;
        io.out(35, 36, t336);
        const P t337 = c[3] * t290;
        const P t338 = t306 - t337;
        const P t339 = c[1] * t291;
        const P t340 = t338 + t339;
        const P t341 = c[2] * t293;
        const P t342 = t340 - t341;
        const P t343 = c[6] * t314;
        const P t344 = c[4] * t316;
        const P t345 = t343 - t344;
        const P t346 = c[5] * t319;
        const P t347 = t345 + t346;
        const P t348 = t342 - t347;
        io.out(21, 22, t348);
        const P t349 = t342 + t347;
        io.out(28, 29, t349);
        const P t350 = shuffled<0, 2>(t169, t173);
        const P t351 = shuffled<0, 2>(t223, t227);
        // spectrum block of 7
        const P t352 = t350 + t351;
        const P t353 = shuffled<0, 2>(t277, t281);
        const P t354 = t352 + t353;
        // spectrum block of 7
        const P t355 = c[2] * t71;
        const P t356 = t298 - t355;
        const P t357 = c[3] * t74;
        const P t358 = t356 - t357;
        const P t359 = P(c[1], -c[1]) * t113;
        const P t360 = t358 + t359;
        const P t361 = c[5] * t118;
        const P t362 = c[6] * t120;
        const P t363 = t361 - t362;
        const P t364 = c[4] * t123;
        const P t365 = t363 - t364;
        const P t366 = t360 - t365;
        const V t367 = part<1>(t366);
        io.out(20, t367);
        const P t368 = c[3] * t71;
        const P t369 = t298 - t368;
        const P t370 = c[1] * t74;
        const P t371 = t369 + t370;
        const P t372 = P(-c[2], c[2]) * t113;
        const P t373 = t371 + t372;
        const P t374 = c[6] * t118;
        const P t375 = c[4] * t120;
        const P t376 = t374 - t375;
        const P t377 = c[5] * t123;
        const P t378 = t376 + t377;
        const P t379 = t373 - t378;
        const V t380 = part<1>(t379);
        io.out(27, t380);
        const P t381 = shuffled<0, 2>(t366, t379);
        // spectrum block of 7
        const P t382 = t354 + t381;
        io.out(2, 3, t382);
        const P t383 = c[1] * t350;
        const P t384 = c[2] * t351;
        const P t385 = t383 - t384;
        const P t386 = c[3] * t353;
        const P t387 = t385 - t386;
        const P t388 = t387 + t381;
        const P t389 = shuffled<1, 3>(t169, t173);
        const P t390 = c[4] * t389;
        const P t391 = shuffled<1, 3>(t223, t227);
        const P t392 = c[5] * t391;
        const P t393 = t390 + t392;
        const P t394 = shuffled<1, 3>(t277, t281);
        const P t395 = c[6] * t394;
        const P t396 = t393 + t395;
        const P t397 = t388 - t396;
        io.out(9, 10, t397);
        const P t398 = t388 + t396;
        io.out(44, 45, t398);
        const P t399 = c[2] * t350;
        const P t400 = t381 - t399;
        const P t401 = c[3] * t351;
        const P t402 = t400 - t401;
        const P t403 = c[1] * t353;
        const P t404 = t402 + t403;
        const P t405 = c[5] * t389;
        const P t406 = c[6] * t391;
        const P t407 = t405 - t406;
        const P t408 = c[4] * t394;
        const P t409 = t407 - t408;
        const P t410 = t404 - t409;
        io.out(16, 17, t410);
        const P t411 = t404 + t409;
        io.out(37, 38, t411);
        const P t412 = c[3] * t350;
        const P t413 = t381 - t412;
        const P t414 = c[1] * t351;
        const P t415 = t413 + t414;
        const P t416 = c[2] * t353;
        const P t417 = t415 - t416;
        const P t418 = c[6] * t389;
        const P t419 = c[4] * t391;
        const P t420 = t418 - t419;
        const P t421 = c[5] * t394;
        const P t422 = t420 + t421;
        const P t423 = t417 - t422;
        io.out(23, 24, t423);
        const P t424 = t417 + t422;
        io.out(30, 31, t424);
        const P t425 = shuffled<0, 2>(t177, t181);
        const P t426 = shuffled<0, 2>(t231, t235);
        // spectrum block of 7
        const P t427 = t425 + t426;
        const P t428 = shuffled<0, 2>(t285, t289);
        const P t429 = flipped<0, 1>(t428);
        const P t430 = t427 + t429;
        // spectrum block of 7
        const P t431 = t373 + t378;
        const V t432 = part<1>(t431);
        io.out(34, t432);
        const P t433 = t360 + t365;
        const V t434 = part<1>(t433);
        io.out(41, t434);
        const P t435 = shuffled<0, 2>(t431, t433);
        // spectrum block of 7
        const P t436 = t430 + t435;
        io.out(4, 5, t436);
        const P t437 = c[1] * t425;
        const P t438 = c[2] * t426;
        const P t439 = t437 - t438;
        const P t440 = P(-c[3], c[3]) * t428;
        const P t441 = t439 + t440;
        const P t442 = t441 + t435;
        const P t443 = shuffled<1, 3>(t177, t181);
        const P t444 = c[4] * t443;
        const P t445 = shuffled<1, 3>(t231, t235);
        const P t446 = c[5] * t445;
        const P t447 = t444 + t446;
        const P t448 = shuffled<1, 3>(t285, t289);
        const P t449 = c[6] * t448;
        const P t450 = t447 + t449;
        const P t451 = t442 - t450;
        io.out(11, 12, t451);
        const P t452 = t442 + t450;
        io.out(46, 47, t452);
        const P t453 = c[2] * t425;
        const P t454 = t435 - t453;
        const P t455 = c[3] * t426;
        const P t456 = t454 - t455;
        const P t457 = P(c[1], -c[1]) * t428;
        const P t458 = t456 + t457;
        const P t459 = c[5] * t443;
        const P t460 = c[6] * t445;
        const P t461 = t459 - t460;
        const P t462 = c[4] * t448;
        const P t463 = t461 - t462;
        const P t464 = t458 - t463;
        io.out(18, 19, t464);
        const P t465 = t458 + t463;
        io.out(39, 40, t465);
        const P t466 = c[3] * t425;
        const P t467 = t435 - t466;
        const P t468 = c[1] * t426;
        const P t469 = t467 + t468;
        const P t470 = P(-c[2], c[2]) * t428;
        const P t471 = t469 + t470;
        const P t472 = c[6] * t443;
        const P t473 = c[4] * t445;
        const P t474 = t472 - t473;
        const P t475 = c[5] * t448;
        const P t476 = t474 + t475;
        const P t477 = t471 - t476;
        io.out(25, 26, t477);
        const P t478 = t471 + t476;
        io.out(32, 33, t478);
        const V t479 = part<1>(t125);
        // spectrum block of 7
        const V t480 = t302 + t479;
        io.out(48, t480);
    }
};

}  // namespace zulg
