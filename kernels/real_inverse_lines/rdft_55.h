// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 55.
// Inverse DFT to 55 real points, prime-factor 5, 11; up to four lanes to a register.
// 96 sums, 66 differences, 123 products of registers, which do the 959 steps of the graph, those with
// `scale` included; 62 shuffles, 16 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<55> {
    static constexpr int steps = 959;  // with `scale`
    static constexpr double inverseRoot = 0.13483997249264842;  // 1/sqrt(55), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        2.0,  // c[4]: 2
        0.21991735259851847,  // c[5]: -P[2] of 11
        0.6258085634010283,  // c[6]: Q[2] of 11
        0.35166595918026655,  // c[7]: -Q[3] of 11
        0.5624331543870997,  // c[8]: -P[3] of 11
        0.4015958813743768,  // c[9]: Q[1] of 11
        0.527940098934659,  // c[10]: P[1] of 11
        0.6395756210159789,  // c[11]: -P[4] of 11
        0.1759062960840939,  // c[12]: -Q[4] of 11
        0.1,  // c[13]: 1/10
        0.33166247903553997,  // c[14]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const P x11 = io.pair(11);
        // doubled bins
        const P t0 = c[4] * x11;
        const V t1 = part<0>(t0);
        const P x22 = io.pair(22);
        const P t2 = c[4] * x22;
        const V t3 = part<0>(t2);
        // spectrum block of 5
        const V t4 = t1 + t3;
        const V x0r = io.re(0);
        const V t5 = t4 + x0r;
        const V t6 = c[0] * t1;
        const V t7 = c[1] * t3;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0r;
        const V t10 = part<1>(t0);
        const V t11 = c[2] * t10;
        const V t12 = part<1>(t2);
        const V t13 = c[3] * t12;
        const V t14 = t11 + t13;
        const V t15 = t9 - t14;
        const V t16 = t9 + t14;
        const V t17 = c[1] * t1;
        const V t18 = x0r - t17;
        const V t19 = c[0] * t3;
        const V t20 = t18 + t19;
        const V t21 = c[3] * t10;
        const V t22 = c[2] * t12;
        const V t23 = t21 - t22;
        const V t24 = t20 - t23;
        const V t25 = t20 + t23;
        const Q x16_21 = io.pairs(16, 21);
        // doubled bins
        const Q t26 = c[4] * x16_21;
        const Q x6_1 = io.pairs(6, 1);
        const Q t27 = Q(c[4], -c[4], c[4], -c[4]) * x6_1;
        // complex block of 5
        const Q t28 = t26 + t27;
        const Q x17_12 = io.pairs(17, 12);
        // doubled bins
        const Q t29 = Q(c[4], -c[4], c[4], c[4]) * x17_12;
        const Q x27_23 = io.pairs(27, 23);
        const Q t30 = c[4] * x27_23;
        // complex block of 5
        const Q t31 = t29 + t30;
        const Q t32 = t26 - t27;
        const Q t33 = shuffled<0, 5, 2, 7>(t29, t30);
        const Q t34 = shuffled<0, 5, 2, 7>(t30, t29);
        const Q t35 = t33 - t34;
        const Q t36 = flipped<0, 0, 0, 1>(t31);
        const Q t37 = t28 + t36;
        const Q t38 = c[0] * t28;
        const Q t39 = Q(c[1], c[1], c[1], -c[1]) * t31;
        const Q t40 = t38 - t39;
        const Q x5_10 = io.pairs(5, 10);
        // doubled bins
        const Q t41 = c[4] * x5_10;
        // complex block of 5
        const Q t42 = c[1] * t28;
        const Q t43 = t41 - t42;
        const P x3 = io.pair(3);
        // doubled bins
        const P t44 = c[4] * x3;
        const P x8 = io.pair(8);
        const P t45 = P(c[4], -c[4]) * x8;
        // complex block of 5
        const P t46 = t44 + t45;
        const P x14 = io.pair(14);
        // doubled bins
        const P t47 = c[4] * x14;
        const P x19 = io.pair(19);
        const P t48 = P(c[4], -c[4]) * x19;
        // complex block of 5
        const P t49 = t47 + t48;
        const P t50 = flipped<0, 1>(t48);
        const P t51 = flipped<1, 0>(t47);
        const P t52 = t50 + t51;
        const P t53 = t44 - t45;
        const P t54 = t49 + t46;
        const P t55 = c[0] * t49;
        const P t56 = c[1] * t46;
        const P t57 = t55 - t56;
        const P x25 = io.pair(25);
        // doubled bins
        const P t58 = c[4] * x25;
        // complex block of 5
        const P t59 = c[1] * t49;
        const P t60 = t58 - t59;
        // complex block of 5
        const Q t61 = t37 + t41;
        const Q t62 = t40 + t41;
        const Q t63 = c[2] * t32;
        const Q t64 = Q(c[3], -c[3], c[3], c[3]) * t35;
        const Q t65 = t63 - t64;
        const Q t66 = shuffled<1, 0, 3, 2>(t65);
        const Q t67 = flipped<1, 0, 1, 0>(t66);
        const Q t68 = t62 + t67;
        const Q t69 = t62 - t67;
        const Q t70 = Q(c[0], c[0], c[0], -c[0]) * t31;
        const Q t71 = t43 + t70;
        const Q t72 = c[3] * t32;
        const Q t73 = Q(c[2], -c[2], c[2], c[2]) * t35;
        const Q t74 = t72 + t73;
        const Q t75 = shuffled<1, 0, 3, 2>(t74);
        const Q t76 = flipped<1, 0, 1, 0>(t75);
        const Q t77 = t71 + t76;
        const Q t78 = t71 - t76;
        // complex block of 5
        const P t79 = t54 + t58;
        const P t80 = t57 + t58;
        const P t81 = c[2] * t52;
        const P t82 = P(-c[3], c[3]) * t53;
        const P t83 = t81 + t82;
        const P t84 = shuffled<1, 0>(t83);
        const P t85 = t80 + t84;
        const P t86 = t80 - t84;
        const P t87 = c[0] * t46;
        const P t88 = t60 + t87;
        const P t89 = c[2] * t53;
        const P t90 = P(c[3], -c[3]) * t52;
        const P t91 = t89 + t90;
        const P t92 = shuffled<1, 0>(t91);
        const P t93 = flipped<1, 0>(t92);
        const P t94 = t88 + t93;
        const P t95 = t88 - t93;
        const Q t96 = shuffled<0, 4, 2, 6>(t61, t68);
        const Q t97 = shuffled<0, 4, 2, 6>(t77, t78);
        const Q t98 = shuffled<2, 3, 6, 7>(t96, t97);
        const P t99 = shuffled<0, 2>(t79, t85);
        const P t100 = shuffled<0, 2>(t94, t95);
        const Q t101 = joined(t99, t100);
        // real block of 5
        const Q t102 = t98 + t101;
        const Q t103 = t98 - t101;
        const P t104 = shuffled<1, 3>(t79, t85);
        const P t105 = shuffled<1, 3>(t94, t95);
        const Q t106 = joined(t104, t105);
        const Q t107 = shuffled<1, 5, 3, 7>(t61, t68);
        const Q t108 = shuffled<1, 5, 3, 7>(t77, t78);
        const Q t109 = shuffled<2, 3, 6, 7>(t107, t108);
        // real block of 5
        const Q t110 = t106 - t109;
        const Q t111 = t109 + t106;
        const P t112 = part<1>(t69);
        const P t113 = flipped<0, 1>(t112);
        // real block of 5
        const P t114 = t86 + t113;
        const P t115 = flipped<1, 0>(t86);
        const P t116 = t112 + t115;
        const Q x7_2 = io.pairs(7, 2);
        // doubled bins
        const Q t117 = c[4] * x7_2;
        const Q x18_13 = io.pairs(18, 13);
        const Q t118 = c[4] * x18_13;
        // complex block of 5
        const Q t119 = t117 + t118;
        const Q x4_9 = io.pairs(4, 9);
        // doubled bins
        const Q t120 = c[4] * x4_9;
        const Q x26_24 = io.pairs(26, 24);
        const Q t121 = Q(c[4], c[4], c[4], -c[4]) * x26_24;
        // complex block of 5
        const Q t122 = t120 + t121;
        const Q t123 = flipped<0, 0, 0, 1>(t121);
        const Q t124 = flipped<0, 0, 0, 1>(t120);
        const Q t125 = t123 - t124;
        const Q t126 = shuffled<0, 5, 2, 7>(t117, t118);
        const Q t127 = shuffled<0, 5, 2, 7>(t118, t117);
        const Q t128 = t126 - t127;
        const Q t129 = flipped<0, 1, 0, 1>(t119);
        const Q t130 = t122 + t129;
        const Q t131 = c[0] * t122;
        const Q t132 = Q(-c[1], c[1], -c[1], c[1]) * t119;
        const Q t133 = t131 + t132;
        const Q x15_20 = io.pairs(15, 20);
        // doubled bins
        const Q t134 = c[4] * x15_20;
        // complex block of 5
        const Q t135 = c[1] * t122;
        const Q t136 = t134 - t135;
        const Q t137 = t130 + t134;
        const Q t138 = t133 + t134;
        const Q t139 = c[2] * t125;
        const Q t140 = Q(c[3], c[3], c[3], -c[3]) * t128;
        const Q t141 = t139 - t140;
        const Q t142 = shuffled<1, 0, 3, 2>(t141);
        const Q t143 = flipped<1, 0, 0, 0>(t142);
        const Q t144 = t138 + t143;
        const Q t145 = t138 - t143;
        const Q t146 = Q(c[0], -c[0], c[0], -c[0]) * t119;
        const Q t147 = t136 + t146;
        const Q t148 = c[2] * t128;
        const Q t149 = Q(c[3], c[3], c[3], -c[3]) * t125;
        const Q t150 = t148 + t149;
        const Q t151 = shuffled<1, 0, 3, 2>(t150);
        const Q t152 = flipped<1, 0, 1, 0>(t151);
        const Q t153 = t147 + t152;
        const Q t154 = t147 - t152;
        const Q t155 = shuffled<0, 4, 2, 6>(t137, t144);
        const Q t156 = shuffled<0, 4, 2, 6>(t153, t154);
        const Q t157 = shuffled<0, 1, 4, 5>(t155, t156);
        const Q t158 = shuffled<2, 3, 6, 7>(t155, t156);
        // real block of 5
        const Q t159 = t157 + t158;
        const Q t160 = t157 - t158;
        const Q t161 = shuffled<1, 5, 3, 7>(t137, t144);
        const Q t162 = shuffled<1, 5, 3, 7>(t153, t154);
        const Q t163 = shuffled<0, 1, 4, 5>(t161, t162);
        const Q t164 = shuffled<2, 3, 6, 7>(t161, t162);
        // real block of 5
        const Q t165 = t163 + t164;
        const Q t166 = t163 - t164;
        const P t167 = part<0>(t145);
        const P t168 = part<1>(t145);
        // real block of 5
        const P t169 = t167 + t168;
        const P t170 = t167 - t168;
        // real block of 5
        const Q t171 = t102 + t159;
        const Q t172 = shuffled<0, 1, 4, 5>(t96, t97);
        const Q t173 = t171 + t172;
        const P t174 = joined(t5, t15);
        const P t175 = joined(t24, t25);
        const Q t176 = joined(t174, t175);
        // spectrum block of 11, multiplier 5
        const Q t177 = c[13] * t173;
        const Q t178 = t176 - t177;
        // real block of 5
        const Q t179 = c[0] * t102;
        const Q t180 = c[1] * t159;
        const Q t181 = t179 - t180;
        const Q t182 = t181 + t172;
        const Q t183 = c[3] * t160;
        const Q t184 = c[2] * t103;
        const Q t185 = t183 - t184;
        // real block of 5
        const Q t186 = c[0] * t110;
        const Q t187 = c[1] * t165;
        const Q t188 = t186 - t187;
        const Q t189 = shuffled<0, 1, 4, 5>(t107, t108);
        const Q t190 = t188 + t189;
        const Q t191 = c[2] * t111;
        const Q t192 = c[3] * t166;
        const Q t193 = t191 + t192;
        // spectrum block of 11, multiplier 5
        const Q t194 = c[5] * t182;
        const Q t195 = c[6] * t185;
        const Q t196 = t194 + t195;
        const Q t197 = c[7] * t190;
        const Q t198 = c[8] * t193;
        const Q t199 = t197 + t198;
        // complex block of 2
        const Q t200 = t196 + t199;
        const Q t201 = t199 - t196;
        // spectrum block of 11, multiplier 5
        const Q t202 = c[6] * t182;
        const Q t203 = c[5] * t185;
        const Q t204 = t202 - t203;
        const Q t205 = c[7] * t193;
        const Q t206 = c[8] * t190;
        const Q t207 = t205 - t206;
        // real block of 5
        const Q t208 = c[1] * t102;
        const Q t209 = t172 - t208;
        const Q t210 = c[0] * t159;
        const Q t211 = t209 + t210;
        const Q t212 = c[3] * t103;
        const Q t213 = c[2] * t160;
        const Q t214 = t212 + t213;
        // real block of 5
        const Q t215 = c[1] * t110;
        const Q t216 = t189 - t215;
        const Q t217 = c[0] * t165;
        const Q t218 = t216 + t217;
        const Q t219 = c[3] * t111;
        const Q t220 = c[2] * t166;
        const Q t221 = t219 - t220;
        // spectrum block of 11, multiplier 5
        const Q t222 = c[9] * t218;
        const Q t223 = c[10] * t221;
        const Q t224 = t222 + t223;
        const Q t225 = c[11] * t211;
        const Q t226 = c[12] * t214;
        const Q t227 = t225 + t226;
        // complex block of 2
        const Q t228 = t224 - t227;
        const Q t229 = t227 + t224;
        // spectrum block of 11, multiplier 5
        const Q t230 = c[10] * t218;
        const Q t231 = c[9] * t221;
        const Q t232 = t230 - t231;
        const Q t233 = c[11] * t214;
        const Q t234 = c[12] * t211;
        const Q t235 = t233 - t234;
        // real block of 5
        const Q t236 = t110 + t165;
        const Q t237 = t236 + t189;
        // spectrum block of 11, multiplier 5
        const Q t238 = c[14] * t237;
        // spectrum block of 2
        const Q t239 = t178 - t238;
        // spectrum block of 5, multiplier 2
        const Q t240 = c[0] * t200;
        const Q t241 = t239 - t240;
        // complex block of 2
        const Q t242 = t204 - t207;
        // complex block of 2
        const Q t243 = t235 - t232;
        // spectrum block of 5, multiplier 2
        const Q t244 = t228 - t200;
        const Q t245 = c[1] * t200;
        const Q t246 = c[0] * t228;
        const Q t247 = t245 + t246;
        const Q t248 = t244 + t239;
        io.out(5, 16, 27, 38, t248);
        const Q t249 = c[1] * t228;
        const Q t250 = t241 - t249;
        const Q t251 = c[2] * t242;
        const Q t252 = c[3] * t243;
        const Q t253 = t251 + t252;
        const Q t254 = t250 - t253;
        io.out(25, 36, 47, 3, t254);
        const Q t255 = t250 + t253;
        io.out(45, 1, 12, 23, t255);
        const Q t256 = t247 + t239;
        const Q t257 = c[3] * t242;
        const Q t258 = c[2] * t243;
        const Q t259 = t257 - t258;
        const Q t260 = t256 - t259;
        io.out(15, 26, 37, 48, t260);
        const Q t261 = t256 + t259;
        io.out(20, 31, 42, 53, t261);
        // spectrum block of 2
        const Q t262 = t178 + t238;
        // spectrum block of 5, multiplier 2
        const Q t263 = c[1] * t201;
        const Q t264 = t262 - t263;
        // complex block of 2
        const Q t265 = t204 + t207;
        // complex block of 2
        const Q t266 = t235 + t232;
        // spectrum block of 5, multiplier 2
        const Q t267 = t201 - t229;
        const Q t268 = c[0] * t201;
        const Q t269 = c[1] * t229;
        const Q t270 = t268 + t269;
        const Q t271 = t267 + t262;
        io.out(50, 6, 17, 28, t271);
        const Q t272 = t270 + t262;
        const Q t273 = c[2] * t265;
        const Q t274 = c[3] * t266;
        const Q t275 = t273 + t274;
        const Q t276 = t272 - t275;
        io.out(30, 41, 52, 8, t276);
        const Q t277 = t272 + t275;
        io.out(10, 21, 32, 43, t277);
        const Q t278 = c[0] * t229;
        const Q t279 = t264 - t278;
        const Q t280 = c[3] * t265;
        const Q t281 = c[2] * t266;
        const Q t282 = t280 - t281;
        const Q t283 = t279 - t282;
        io.out(40, 51, 7, 18, t283);
        const Q t284 = t279 + t282;
        io.out(35, 46, 2, 13, t284);
        // spectrum block of 11, multiplier 5
        const Q t285 = t176 + t173;
        io.out(0, 11, 22, 33, t285);
        // real block of 5
        const P t286 = t114 + t169;
        const P t287 = part<0>(t69);
        const P t288 = t286 + t287;
        const V t289 = part<0>(t288);
        // spectrum block of 11, multiplier 5
        const V t290 = c[13] * t289;
        const V t291 = t16 - t290;
        // real block of 5
        const P t292 = c[0] * t114;
        const P t293 = c[1] * t169;
        const P t294 = t292 - t293;
        const P t295 = t294 + t287;
        const P t296 = P(-c[2], c[2]) * t116;
        const P t297 = c[3] * t170;
        const P t298 = t296 + t297;
        const P t299 = c[1] * t114;
        const P t300 = t287 - t299;
        const P t301 = c[0] * t169;
        const P t302 = t300 + t301;
        const P t303 = c[3] * t116;
        const P t304 = P(c[2], -c[2]) * t170;
        const P t305 = t303 + t304;
        const P t306 = shuffled<0, 2>(t298, t295);
        const P t307 = shuffled<1, 3>(t305, t302);
        const Q t308 = joined(t306, t307);
        // spectrum block of 11, multiplier 5
        const Q t309 = Q(c[6], c[6], c[10], c[10]) * t308;
        const Q t310 = shuffled<1, 0, 3, 2>(t308);
        const Q t311 = Q(c[5], -c[5], c[9], -c[9]) * t310;
        const Q t312 = t309 + t311;
        const P t313 = shuffled<1, 3>(t295, t298);
        const P t314 = shuffled<0, 2>(t302, t305);
        const Q t315 = joined(t313, t314);
        const Q t316 = Q(c[7], c[7], c[11], c[11]) * t315;
        const Q t317 = shuffled<1, 0, 3, 2>(t315);
        const Q t318 = Q(c[8], -c[8], c[12], -c[12]) * t317;
        const Q t319 = t316 + t318;
        const Q t320 = flipped<0, 1, 1, 0>(t319);
        const Q t321 = flipped<0, 0, 0, 1>(t312);
        // complex block of 2
        const Q t322 = t320 + t321;
        const Q t323 = flipped<1, 0, 0, 1>(t321);
        const Q t324 = t319 + t323;
        const V t325 = part<1>(t288);
        // spectrum block of 11, multiplier 5
        const V t326 = c[14] * t325;
        // spectrum block of 2
        const V t327 = t291 - t326;
        const P t328 = part<0>(t322);
        const P t329 = part<0>(t324);
        const P t330 = shuffled<0, 2>(t328, t329);
        // spectrum block of 5, multiplier 2
        const P t331 = c[0] * t330;
        const V t332 = part<0>(t331);
        const V t333 = t327 - t332;
        const V t334 = part<1>(t331);
        const P t335 = part<1>(t324);
        const V t336 = part<0>(t335);
        // spectrum block of 5, multiplier 2
        const V t337 = c[1] * t336;
        const V t338 = t334 + t337;
        // spectrum block of 2
        const V t339 = t291 + t326;
        // spectrum block of 5, multiplier 2
        const P t340 = c[1] * t330;
        const V t341 = part<0>(t340);
        const P t342 = part<1>(t322);
        const V t343 = part<0>(t342);
        const V t344 = c[0] * t343;
        const V t345 = t341 + t344;
        const V t346 = part<1>(t340);
        // spectrum block of 5, multiplier 2
        const V t347 = t339 - t346;
        const P t348 = shuffled<0, 3>(t342, t330);
        const P t349 = shuffled<0, 2>(t330, t335);
        // spectrum block of 5, multiplier 2
        const P t350 = t348 - t349;
        const P t351 = shuffled<1, 3>(t328, t329);
        const P t352 = c[2] * t351;
        const P t353 = shuffled<1, 3>(t342, t335);
        const P t354 = c[3] * t353;
        const P t355 = t352 + t354;
        const P t356 = c[3] * t351;
        const P t357 = c[2] * t353;
        const P t358 = t356 - t357;
        const P t359 = joined(t327, t339);
        const P t360 = t350 + t359;
        io.out(49, 39, t360);
        const P t361 = joined(t333, t338);
        const V t362 = -c[1] * t343;
        const P t363 = joined(t362, t339);
        const P t364 = t361 + t363;
        const P t365 = t364 - t355;
        io.out(14, 19, t365);
        const P t366 = t364 + t355;
        io.out(34, 54, t366);
        const P t367 = joined(t345, t347);
        // spectrum block of 5, multiplier 2
        const V t368 = -c[0] * t336;
        const P t369 = joined(t327, t368);
        // spectrum block of 5, multiplier 2
        const P t370 = t367 + t369;
        const P t371 = t370 - t358;
        io.out(4, 29, t371);
        const P t372 = t370 + t358;
        io.out(9, 24, t372);
        // spectrum block of 11, multiplier 5
        const V t373 = t16 + t289;
        io.out(44, t373);
    }
};

}  // namespace zulg
