// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 49.
// Forward DFT of 49 real points, twiddled 7, 7; two lanes to a register.
// 120 sums, 94 differences, 162 products of registers, which do the 781 steps of the graph, those with
// `scale` included; 84 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<49> {
    static constexpr int steps = 781;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 4/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.7183493500977276,  // c[6]: cos 2 pi 6/49
        0.6956825506034864,  // c[7]: sin 2 pi 6/49
        0.9672948630390295,  // c[8]: cos 2 pi 2/49
        0.2536545839095074,  // c[9]: sin 2 pi 2/49
        0.9269167573460217,  // c[10]: cos 2 pi 3/49
        0.37526700487937414,  // c[11]: sin 2 pi 3/49
        0.8713187041233893,  // c[12]: cos 2 pi 4/49
        0.4907175520039379,  // c[13]: sin 2 pi 4/49
        0.03205157757165517,  // c[14]: cos 2 pi 12/49
        0.9994862162006879,  // c[15]: sin 2 pi 12/49
        0.9917900138232462,  // c[16]: cos 2 pi 1/49
        0.12787716168450602,  // c[17]: sin 2 pi 1/49
        0.8014136218679566,  // c[18]: cos 2 pi 5/49
        0.598110530491216,  // c[19]: sin 2 pi 5/49
        0.518392568310525,  // c[20]: cos 2 pi 8/49
        0.8551427630053462,  // c[21]: sin 2 pi 8/49
        0.28452758663103245,  // c[22]: cos 2 pi 10/49
        0.9586678530366606,  // c[23]: sin 2 pi 10/49
        0.40478334312239383,  // c[24]: cos 2 pi 9/49
        0.9144126230158125,  // c[25]: sin 2 pi 9/49
        0.3453650544213076,  // c[26]: -cos 2 pi 15/49
        0.9384684220497604,  // c[27]: sin 2 pi 15/49
        0.6723008902613168,  // c[28]: -cos 2 pi 18/49
        0.7402779970753155,  // c[29]: sin 2 pi 18/49
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x7_8 = io.in(7, 8);
        const P x42_43 = io.in(42, 43);
        // real block of 7
        const P t0 = x7_8 + x42_43;
        const P t1 = x7_8 - x42_43;
        const P x35_36 = io.in(35, 36);
        const P x14_15 = io.in(14, 15);
        const P t2 = x35_36 + x14_15;
        const P t3 = x35_36 - x14_15;
        const P x28_29 = io.in(28, 29);
        const P x21_22 = io.in(21, 22);
        const P t4 = x28_29 + x21_22;
        const P t5 = x28_29 - x21_22;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x0_1 = io.in(0, 1);
        const P t8 = t7 + x0_1;
        const P t9 = c[0] * t0;
        const P t10 = c[1] * t2;
        const P t11 = t9 - t10;
        const P t12 = c[2] * t4;
        const P t13 = t11 - t12;
        const P t14 = t13 + x0_1;
        const P t15 = c[3] * t3;
        const P t16 = c[4] * t5;
        const P t17 = t15 + t16;
        const P t18 = c[5] * t1;
        const P t19 = t17 - t18;
        const P t20 = c[1] * t0;
        const P t21 = x0_1 - t20;
        const P t22 = c[2] * t2;
        const P t23 = t21 - t22;
        const P t24 = c[0] * t4;
        const P t25 = t23 + t24;
        const P t26 = c[3] * t1;
        const P t27 = c[4] * t3;
        const P t28 = t26 + t27;
        const P t29 = c[5] * t5;
        const P t30 = t28 + t29;
        const P t31 = c[2] * t0;
        const P t32 = x0_1 - t31;
        const P t33 = c[0] * t2;
        const P t34 = t32 + t33;
        const P t35 = c[1] * t4;
        const P t36 = t34 - t35;
        const P t37 = c[3] * t5;
        const P t38 = c[4] * t1;
        const P t39 = t37 - t38;
        const P t40 = c[5] * t3;
        const P t41 = t39 - t40;
        const P x9_10 = io.in(9, 10);
        const P x44_45 = io.in(44, 45);
        // real block of 7
        const P t42 = x9_10 + x44_45;
        const P t43 = x9_10 - x44_45;
        const P x37_38 = io.in(37, 38);
        const P x16_17 = io.in(16, 17);
        const P t44 = x37_38 + x16_17;
        const P t45 = x37_38 - x16_17;
        const P x30_31 = io.in(30, 31);
        const P x23_24 = io.in(23, 24);
        const P t46 = x30_31 + x23_24;
        const P t47 = x30_31 - x23_24;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P x2_3 = io.in(2, 3);
        const P t50 = t49 + x2_3;
        const P t51 = c[0] * t42;
        const P t52 = c[1] * t44;
        const P t53 = t51 - t52;
        const P t54 = c[2] * t46;
        const P t55 = t53 - t54;
        const P t56 = t55 + x2_3;
        const P t57 = c[3] * t45;
        const P t58 = c[4] * t47;
        const P t59 = t57 + t58;
        const P t60 = c[5] * t43;
        const P t61 = t59 - t60;
        const P t62 = c[1] * t42;
        const P t63 = x2_3 - t62;
        const P t64 = c[2] * t44;
        const P t65 = t63 - t64;
        const P t66 = c[0] * t46;
        const P t67 = t65 + t66;
        const P t68 = c[3] * t43;
        const P t69 = c[4] * t45;
        const P t70 = t68 + t69;
        const P t71 = c[5] * t47;
        const P t72 = t70 + t71;
        const P t73 = c[2] * t42;
        const P t74 = x2_3 - t73;
        const P t75 = c[0] * t44;
        const P t76 = t74 + t75;
        const P t77 = c[1] * t46;
        const P t78 = t76 - t77;
        const P t79 = c[3] * t47;
        const P t80 = c[4] * t43;
        const P t81 = t79 - t80;
        const P t82 = c[5] * t45;
        const P t83 = t81 - t82;
        const P x11_12 = io.in(11, 12);
        const P x46_47 = io.in(46, 47);
        // real block of 7
        const P t84 = x11_12 + x46_47;
        const P t85 = x11_12 - x46_47;
        const P x39_40 = io.in(39, 40);
        const P x18_19 = io.in(18, 19);
        const P t86 = x39_40 + x18_19;
        const P t87 = x39_40 - x18_19;
        const P x32_33 = io.in(32, 33);
        const P x25_26 = io.in(25, 26);
        const P t88 = x32_33 + x25_26;
        const P t89 = x32_33 - x25_26;
        const P t90 = t84 + t86;
        const P t91 = t90 + t88;
        const P x4_5 = io.in(4, 5);
        const P t92 = t91 + x4_5;
        const P t93 = c[0] * t84;
        const P t94 = c[1] * t86;
        const P t95 = t93 - t94;
        const P t96 = c[2] * t88;
        const P t97 = t95 - t96;
        const P t98 = t97 + x4_5;
        const P t99 = c[3] * t87;
        const P t100 = c[4] * t89;
        const P t101 = t99 + t100;
        const P t102 = c[5] * t85;
        const P t103 = t101 - t102;
        const P t104 = c[1] * t84;
        const P t105 = x4_5 - t104;
        const P t106 = c[2] * t86;
        const P t107 = t105 - t106;
        const P t108 = c[0] * t88;
        const P t109 = t107 + t108;
        const P t110 = c[3] * t85;
        const P t111 = c[4] * t87;
        const P t112 = t110 + t111;
        const P t113 = c[5] * t89;
        const P t114 = t112 + t113;
        const P t115 = c[2] * t84;
        const P t116 = x4_5 - t115;
        const P t117 = c[0] * t86;
        const P t118 = t116 + t117;
        const P t119 = c[1] * t88;
        const P t120 = t118 - t119;
        const P t121 = c[3] * t89;
        const P t122 = c[4] * t85;
        const P t123 = t121 - t122;
        const P t124 = c[5] * t87;
        const P t125 = t123 - t124;
        const V x13 = io.in(13);
        const V x48 = io.in(48);
        // real block of 7
        const V t126 = x13 + x48;
        const V x41 = io.in(41);
        const V t127 = part<1>(t92);
        const P t128 = joined(x41, t127);
        const V x20 = io.in(20);
        const V t129 = part<0>(t50);
        const P t130 = joined(x20, t129);
        const P t131 = t128 + t130;
        const V t132 = part<0>(t131);
        const V t133 = t126 + t132;
        const V x34 = io.in(34);
        const V t134 = part<0>(t92);
        const P t135 = joined(x34, t134);
        const V x27 = io.in(27);
        const V t136 = part<1>(t50);
        const P t137 = joined(x27, t136);
        const P t138 = t135 + t137;
        const V t139 = part<0>(t138);
        const V t140 = t133 + t139;
        const V x6 = io.in(6);
        const V t141 = t140 + x6;
        const V t142 = part<1>(t8);
        // real block of 7
        const V t143 = t142 + t141;
        const P t144 = joined(x13, t142);
        const P t145 = joined(x48, t141);
        // real block of 7
        const P t146 = t144 - t145;
        const P t147 = t128 - t130;
        const P t148 = t135 - t137;
        const V t149 = part<1>(t131);
        // real block of 7
        const V t150 = t143 + t149;
        const V t151 = part<1>(t138);
        const V t152 = t150 + t151;
        const V t153 = part<0>(t8);
        const V t154 = t152 + t153;
        io.re(0, t154);
        const P t155 = joined(t126, t143);
        // real block of 7
        const P t156 = c[0] * t155;
        const P t157 = c[1] * t131;
        const P t158 = t156 - t157;
        const P t159 = c[2] * t138;
        const P t160 = t158 - t159;
        const P t161 = joined(x6, t153);
        const P t162 = t160 + t161;
        const P t163 = c[3] * t147;
        const P t164 = c[4] * t148;
        const P t165 = t163 + t164;
        const P t166 = c[5] * t146;
        const P t167 = t165 - t166;
        const P t168 = shuffled<1, 3>(t162, t167);
        io.pair(7, t168);
        const P t169 = c[1] * t155;
        const P t170 = t161 - t169;
        const P t171 = c[2] * t131;
        const P t172 = t170 - t171;
        const P t173 = c[0] * t138;
        const P t174 = t172 + t173;
        const P t175 = c[3] * t146;
        const P t176 = c[4] * t147;
        const P t177 = t175 + t176;
        const P t178 = c[5] * t148;
        const P t179 = t177 + t178;
        const P t180 = shuffled<1, 3>(t174, t179);
        io.pair(14, negated<0, 1>(t180));
        const P t181 = c[2] * t155;
        const P t182 = t161 - t181;
        const P t183 = c[0] * t131;
        const P t184 = t182 + t183;
        const P t185 = c[1] * t138;
        const P t186 = t184 - t185;
        const P t187 = c[3] * t148;
        const P t188 = c[4] * t146;
        const P t189 = t187 - t188;
        const P t190 = c[5] * t147;
        const P t191 = t189 - t190;
        const P t192 = shuffled<1, 3>(t186, t191);
        io.pair(21, t192);
        const P t193 = shuffled<1, 3>(t14, t19);
        // real block of 49
        const P t194 = c[16] * t193;
        const P t195 = shuffled<1, 0>(t193);
        const P t196 = P(c[17], -c[17]) * t195;
        const P t197 = t194 + t196;
        const P t198 = shuffled<0, 2>(t56, t61);
        const P t199 = c[8] * t198;
        const P t200 = shuffled<1, 0>(t198);
        const P t201 = P(c[9], -c[9]) * t200;
        const P t202 = t199 + t201;
        const P t203 = shuffled<1, 3>(t56, t61);
        const P t204 = c[10] * t203;
        const P t205 = shuffled<1, 0>(t203);
        const P t206 = P(c[11], -c[11]) * t205;
        const P t207 = t204 + t206;
        const P t208 = shuffled<0, 2>(t98, t103);
        const P t209 = c[12] * t208;
        const P t210 = shuffled<1, 0>(t208);
        const P t211 = P(c[13], -c[13]) * t210;
        const P t212 = t209 + t211;
        const P t213 = shuffled<1, 3>(t98, t103);
        const P t214 = c[18] * t213;
        const P t215 = shuffled<1, 0>(t213);
        const P t216 = P(c[19], -c[19]) * t215;
        const P t217 = t214 + t216;
        const P t218 = shuffled<0, 2>(t162, t167);
        const P t219 = c[6] * t218;
        const P t220 = shuffled<1, 0>(t218);
        const P t221 = P(c[7], -c[7]) * t220;
        const P t222 = t219 + t221;
        // complex block of 7
        const P t223 = t197 + t222;
        const P t224 = t197 - t222;
        const P t225 = t217 + t202;
        const P t226 = t217 - t202;
        const P t227 = t212 + t207;
        const P t228 = t212 - t207;
        const P t229 = t223 + t225;
        const P t230 = t229 + t227;
        const P t231 = shuffled<0, 2>(t14, t19);
        const P t232 = t230 + t231;
        io.pair(1, t232);
        const P t233 = c[0] * t223;
        const P t234 = c[1] * t225;
        const P t235 = t233 - t234;
        const P t236 = c[2] * t227;
        const P t237 = t235 - t236;
        const P t238 = t237 + t231;
        const P t239 = c[5] * t224;
        const P t240 = c[3] * t226;
        const P t241 = t239 - t240;
        const P t242 = c[4] * t228;
        const P t243 = t241 - t242;
        const P t244 = shuffled<1, 0>(t243);
        const P t245 = flipped<0, 1>(t244);
        const P t246 = t238 + t245;
        io.pair(8, t246);
        const P t247 = t238 - t245;
        io.pair(6, negated<0, 1>(t247));
        const P t248 = c[1] * t223;
        const P t249 = t231 - t248;
        const P t250 = c[2] * t225;
        const P t251 = t249 - t250;
        const P t252 = c[0] * t227;
        const P t253 = t251 + t252;
        const P t254 = c[3] * t224;
        const P t255 = c[4] * t226;
        const P t256 = t254 + t255;
        const P t257 = c[5] * t228;
        const P t258 = t256 + t257;
        const P t259 = shuffled<1, 0>(t258);
        const P t260 = flipped<0, 1>(t259);
        const P t261 = t253 + t260;
        io.pair(15, t261);
        const P t262 = t253 - t260;
        io.pair(13, negated<0, 1>(t262));
        const P t263 = c[2] * t223;
        const P t264 = t231 - t263;
        const P t265 = c[0] * t225;
        const P t266 = t264 + t265;
        const P t267 = c[1] * t227;
        const P t268 = t266 - t267;
        const P t269 = c[4] * t224;
        const P t270 = c[5] * t226;
        const P t271 = t269 + t270;
        const P t272 = c[3] * t228;
        const P t273 = t271 - t272;
        const P t274 = shuffled<1, 0>(t273);
        const P t275 = flipped<0, 1>(t274);
        const P t276 = t268 + t275;
        io.pair(22, t276);
        const P t277 = t268 - t275;
        io.pair(20, negated<0, 1>(t277));
        const P t278 = shuffled<1, 3>(t25, t30);
        // real block of 49
        const P t279 = c[8] * t278;
        const P t280 = shuffled<1, 0>(t278);
        const P t281 = P(-c[9], c[9]) * t280;
        const P t282 = t279 + t281;
        const P t283 = shuffled<0, 2>(t67, t72);
        const P t284 = c[12] * t283;
        const P t285 = shuffled<1, 0>(t283);
        const P t286 = P(-c[13], c[13]) * t285;
        const P t287 = t284 + t286;
        const P t288 = shuffled<1, 3>(t67, t72);
        const P t289 = c[6] * t288;
        const P t290 = shuffled<1, 0>(t288);
        const P t291 = P(-c[7], c[7]) * t290;
        const P t292 = t289 + t291;
        const P t293 = shuffled<0, 2>(t109, t114);
        const P t294 = c[20] * t293;
        const P t295 = shuffled<1, 0>(t293);
        const P t296 = P(-c[21], c[21]) * t295;
        const P t297 = t294 + t296;
        const P t298 = shuffled<1, 3>(t109, t114);
        const P t299 = c[22] * t298;
        const P t300 = shuffled<1, 0>(t298);
        const P t301 = P(-c[23], c[23]) * t300;
        const P t302 = t299 + t301;
        const P t303 = shuffled<0, 2>(t174, t179);
        const P t304 = c[14] * t303;
        const P t305 = shuffled<1, 0>(t303);
        const P t306 = P(-c[15], c[15]) * t305;
        const P t307 = t304 + t306;
        // complex block of 7
        const P t308 = t282 + t307;
        const P t309 = shuffled<0, 3>(t282, t307);
        const P t310 = shuffled<0, 3>(t307, t282);
        const P t311 = t309 - t310;
        const P t312 = t302 + t287;
        const P t313 = shuffled<0, 3>(t302, t287);
        const P t314 = shuffled<0, 3>(t287, t302);
        const P t315 = t313 - t314;
        const P t316 = t297 + t292;
        const P t317 = shuffled<0, 3>(t297, t292);
        const P t318 = shuffled<0, 3>(t292, t297);
        const P t319 = t317 - t318;
        const P t320 = t308 + t312;
        const P t321 = t320 + t316;
        const P t322 = shuffled<0, 2>(t25, t30);
        const P t323 = t321 + t322;
        io.pair(2, negated<0, 1>(t323));
        const P t324 = c[0] * t308;
        const V t325 = part<0>(t324);
        const P t326 = c[1] * t312;
        const V t327 = part<0>(t326);
        const V t328 = t325 - t327;
        const P t329 = c[2] * t316;
        const V t330 = part<0>(t329);
        const V t331 = t328 - t330;
        const V t332 = part<0>(t30);
        const V t333 = part<1>(t324);
        const V t334 = t332 + t333;
        const V t335 = part<1>(t326);
        const V t336 = t335 - t334;
        const P t337 = joined(t331, t336);
        const P t338 = shuffled<0, 3>(t322, t329);
        const P t339 = t337 + t338;
        const P t340 = c[5] * t311;
        const P t341 = c[3] * t315;
        const P t342 = t340 - t341;
        const P t343 = c[4] * t319;
        const P t344 = t342 - t343;
        const P t345 = shuffled<1, 0>(t344);
        const P t346 = flipped<0, 1>(t345);
        const P t347 = t339 + t346;
        io.pair(9, t347);
        const P t348 = t339 - t346;
        io.pair(5, negated<0, 1>(t348));
        const V t349 = part<0>(t338);
        const P t350 = c[1] * t308;
        const V t351 = part<0>(t350);
        const V t352 = t349 - t351;
        const P t353 = c[2] * t312;
        const V t354 = part<0>(t353);
        const V t355 = t352 - t354;
        const V t356 = part<1>(t350);
        const V t357 = part<1>(t353);
        const V t358 = t356 + t357;
        const P t359 = c[0] * t316;
        const V t360 = part<1>(t359);
        const V t361 = t358 - t360;
        const P t362 = joined(t355, t361);
        const P t363 = shuffled<0, 3>(t359, t322);
        const P t364 = flipped<0, 1>(t363);
        const P t365 = t362 + t364;
        const P t366 = c[3] * t311;
        const P t367 = c[4] * t315;
        const P t368 = t366 + t367;
        const P t369 = c[5] * t319;
        const P t370 = t368 + t369;
        const P t371 = shuffled<1, 0>(t370);
        const P t372 = flipped<0, 1>(t371);
        const P t373 = t365 + t372;
        io.pair(16, t373);
        const P t374 = t365 - t372;
        io.pair(12, negated<0, 1>(t374));
        const P t375 = c[2] * t308;
        const V t376 = part<0>(t375);
        const V t377 = t349 - t376;
        const P t378 = c[0] * t312;
        const V t379 = part<0>(t378);
        const V t380 = t377 + t379;
        const V t381 = part<1>(t375);
        const V t382 = part<1>(t378);
        const V t383 = t381 - t382;
        const P t384 = c[1] * t316;
        const V t385 = part<1>(t384);
        const V t386 = t383 + t385;
        const P t387 = joined(t380, t386);
        const P t388 = shuffled<0, 3>(t384, t363);
        const P t389 = t387 - t388;
        const P t390 = c[4] * t311;
        const P t391 = c[5] * t315;
        const P t392 = t390 + t391;
        const P t393 = c[3] * t319;
        const P t394 = t392 - t393;
        const P t395 = shuffled<1, 0>(t394);
        const P t396 = flipped<0, 1>(t395);
        const P t397 = t389 + t396;
        io.pair(23, t397);
        const P t398 = t389 - t396;
        io.pair(19, negated<0, 1>(t398));
        const P t399 = shuffled<1, 3>(t36, t41);
        // real block of 49
        const P t400 = c[10] * t399;
        const P t401 = shuffled<1, 0>(t399);
        const P t402 = P(c[11], -c[11]) * t401;
        const P t403 = t400 + t402;
        const P t404 = shuffled<0, 2>(t78, t83);
        const P t405 = c[6] * t404;
        const P t406 = shuffled<1, 0>(t404);
        const P t407 = P(c[7], -c[7]) * t406;
        const P t408 = t405 + t407;
        const P t409 = shuffled<1, 3>(t78, t83);
        const P t410 = c[24] * t409;
        const P t411 = shuffled<1, 0>(t409);
        const P t412 = P(c[25], -c[25]) * t411;
        const P t413 = t410 + t412;
        const P t414 = shuffled<0, 2>(t120, t125);
        const P t415 = c[14] * t414;
        const P t416 = shuffled<1, 0>(t414);
        const P t417 = P(c[15], -c[15]) * t416;
        const P t418 = t415 + t417;
        const P t419 = shuffled<1, 3>(t120, t125);
        const P t420 = P(-c[26], c[26]) * t419;
        const P t421 = shuffled<1, 0>(t419);
        const P t422 = c[27] * t421;
        const P t423 = t420 + t422;
        const P t424 = shuffled<0, 2>(t186, t191);
        const P t425 = P(-c[28], c[28]) * t424;
        const P t426 = shuffled<1, 0>(t424);
        const P t427 = c[29] * t426;
        const P t428 = t425 + t427;
        const P t429 = flipped<0, 1>(t428);
        // complex block of 7
        const P t430 = t403 + t429;
        const P t431 = t403 - t429;
        const P t432 = flipped<0, 1>(t423);
        const P t433 = t408 + t432;
        const P t434 = flipped<1, 0>(t408);
        const P t435 = t423 + t434;
        const P t436 = t418 + t413;
        const P t437 = t418 - t413;
        const P t438 = t430 + t433;
        const P t439 = t438 + t436;
        const P t440 = shuffled<0, 2>(t36, t41);
        const P t441 = t439 + t440;
        io.pair(3, t441);
        const P t442 = c[0] * t430;
        const P t443 = c[1] * t433;
        const P t444 = t442 - t443;
        const P t445 = c[2] * t436;
        const P t446 = t444 - t445;
        const P t447 = t446 + t440;
        const P t448 = c[5] * t431;
        const P t449 = P(-c[3], c[3]) * t435;
        const P t450 = t448 + t449;
        const P t451 = c[4] * t437;
        const P t452 = t450 - t451;
        const P t453 = shuffled<1, 0>(t452);
        const P t454 = flipped<0, 1>(t453);
        const P t455 = t447 + t454;
        io.pair(10, t455);
        const P t456 = t447 - t454;
        io.pair(4, negated<0, 1>(t456));
        const P t457 = c[1] * t430;
        const P t458 = t440 - t457;
        const P t459 = c[2] * t433;
        const P t460 = t458 - t459;
        const P t461 = c[0] * t436;
        const P t462 = t460 + t461;
        const P t463 = c[3] * t431;
        const P t464 = P(c[4], -c[4]) * t435;
        const P t465 = t463 + t464;
        const P t466 = c[5] * t437;
        const P t467 = t465 + t466;
        const P t468 = shuffled<1, 0>(t467);
        const P t469 = flipped<0, 1>(t468);
        const P t470 = t462 + t469;
        io.pair(17, t470);
        const P t471 = t462 - t469;
        io.pair(11, negated<0, 1>(t471));
        const P t472 = c[2] * t430;
        const P t473 = t440 - t472;
        const P t474 = c[0] * t433;
        const P t475 = t473 + t474;
        const P t476 = c[1] * t436;
        const P t477 = t475 - t476;
        const P t478 = c[4] * t431;
        const P t479 = P(c[5], -c[5]) * t435;
        const P t480 = t478 + t479;
        const P t481 = c[3] * t437;
        const P t482 = t480 - t481;
        const P t483 = shuffled<1, 0>(t482);
        const P t484 = flipped<0, 1>(t483);
        const P t485 = t477 + t484;
        io.pair(24, t485);
        const P t486 = t477 - t484;
        io.pair(18, negated<0, 1>(t486));
    }
};

}  // namespace zulg
