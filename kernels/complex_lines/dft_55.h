// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 55.
// Complex DFT of 55 points, prime-factor, order 11, 5; two lines of a stage to a register.
// 170 sums, 124 differences, 174 products of registers, which do the 1918 steps of the graph, those with
// `scale` included; 92 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<55> {
    static constexpr int steps = 1918;  // with `scale`
    static constexpr double inverseRoot = 0.13483997249264842;  // 1/sqrt(55), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.6258085634010283,  // c[4]: Q[2] of 11
        0.21991735259851847,  // c[5]: -P[2] of 11
        0.35166595918026655,  // c[6]: Q[3] of 11
        0.5624331543870997,  // c[7]: P[3] of 11
        0.4015958813743768,  // c[8]: -Q[1] of 11
        0.527940098934659,  // c[9]: -P[1] of 11
        0.1759062960840939,  // c[10]: -Q[4] of 11
        0.6395756210159789,  // c[11]: -P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x45_1 = io.pairs(45, 1);
        const Q x25_36 = io.pairs(25, 36);
        // real block of 5, multiplier 2
        const Q t0 = x45_1 + x25_36;
        const Q t1 = x45_1 - x25_36;
        const Q x20_31 = io.pairs(20, 31);
        const Q x15_26 = io.pairs(15, 26);
        const Q t2 = x20_31 + x15_26;
        const Q t3 = x20_31 - x15_26;
        const Q t4 = t2 + t0;
        const Q x5_16 = io.pairs(5, 16);
        const Q t5 = t4 + x5_16;
        const Q t6 = c[0] * t2;
        const Q t7 = x5_16 - t6;
        const Q t8 = c[1] * t0;
        const Q t9 = t7 + t8;
        const Q t10 = c[2] * t3;
        const Q t11 = c[3] * t1;
        const Q t12 = t10 + t11;
        const Q t13 = c[1] * t2;
        const Q t14 = c[0] * t0;
        const Q t15 = t13 - t14;
        const Q t16 = t15 + x5_16;
        const Q t17 = c[3] * t3;
        const Q t18 = c[2] * t1;
        const Q t19 = t17 - t18;
        const Q x10_21 = io.pairs(10, 21);
        const Q x30_41 = io.pairs(30, 41);
        // real block of 5, multiplier 2
        const Q t20 = x10_21 + x30_41;
        const Q t21 = x10_21 - x30_41;
        const Q x35_46 = io.pairs(35, 46);
        const Q x40_51 = io.pairs(40, 51);
        const Q t22 = x35_46 + x40_51;
        const Q t23 = x35_46 - x40_51;
        const Q t24 = t22 + t20;
        const Q x50_6 = io.pairs(50, 6);
        const Q t25 = t24 + x50_6;
        const Q t26 = c[0] * t22;
        const Q t27 = x50_6 - t26;
        const Q t28 = c[1] * t20;
        const Q t29 = t27 + t28;
        const Q t30 = c[2] * t23;
        const Q t31 = c[3] * t21;
        const Q t32 = t30 + t31;
        const Q t33 = c[1] * t22;
        const Q t34 = c[0] * t20;
        const Q t35 = t33 - t34;
        const Q t36 = t35 + x50_6;
        const Q t37 = c[3] * t23;
        const Q t38 = c[2] * t21;
        const Q t39 = t37 - t38;
        // real block of 2
        const Q t40 = t5 + t25;
        const Q t41 = t5 - t25;
        const Q x0_11 = io.pairs(0, 11);
        // complex block of 11, multiplier 5
        const Q t42 = x0_11 + t40;
        const Q t43 = c[12] * t40;
        const Q t44 = x0_11 - t43;
        const Q t45 = shuffled<1, 0, 3, 2>(t41);
        const Q t46 = Q(c[13], -c[13], c[13], -c[13]) * t45;
        // spectrum block of 2
        const Q t47 = t44 + t46;
        const Q t48 = t44 - t46;
        // complex block of 2
        const Q t49 = t9 + t29;
        const Q t50 = t12 + t32;
        const Q t51 = t9 - t29;
        const Q t52 = t32 - t12;
        // complex block of 11, multiplier 5
        const Q t53 = c[4] * t50;
        const Q t54 = c[5] * t49;
        const Q t55 = t53 - t54;
        const Q t56 = shuffled<1, 0, 3, 2>(t51);
        const Q t57 = c[6] * t56;
        const Q t58 = shuffled<1, 0, 3, 2>(t52);
        const Q t59 = c[7] * t58;
        const Q t60 = t57 + t59;
        const Q t61 = flipped<0, 1, 0, 1>(t60);
        // complex block of 2
        const Q t62 = t55 + t61;
        const Q t63 = t55 - t61;
        // complex block of 11, multiplier 5
        const Q t64 = c[5] * t50;
        const Q t65 = c[4] * t49;
        const Q t66 = t64 + t65;
        const Q t67 = Q(-c[6], c[6], -c[6], c[6]) * t58;
        const Q t68 = Q(c[7], -c[7], c[7], -c[7]) * t56;
        const Q t69 = t67 + t68;
        // complex block of 2
        const Q t70 = t66 - t69;
        const Q t71 = t66 + t69;
        // complex block of 2
        const Q t72 = t16 + t36;
        const Q t73 = t19 + t39;
        const Q t74 = t16 - t36;
        const Q t75 = t19 - t39;
        const Q t76 = shuffled<1, 0, 3, 2>(t74);
        // complex block of 11, multiplier 5
        const Q t77 = c[8] * t76;
        const Q t78 = shuffled<1, 0, 3, 2>(t75);
        const Q t79 = c[9] * t78;
        const Q t80 = t77 + t79;
        const Q t81 = c[10] * t73;
        const Q t82 = c[11] * t72;
        const Q t83 = t81 - t82;
        const Q t84 = flipped<1, 0, 1, 0>(t80);
        // complex block of 2
        const Q t85 = t83 + t84;
        const Q t86 = t83 - t84;
        // complex block of 11, multiplier 5
        const Q t87 = Q(-c[9], c[9], -c[9], c[9]) * t76;
        const Q t88 = Q(c[8], -c[8], c[8], -c[8]) * t78;
        const Q t89 = t87 + t88;
        const Q t90 = c[11] * t73;
        const Q t91 = c[10] * t72;
        const Q t92 = t90 + t91;
        // complex block of 2
        const Q t93 = t92 + t89;
        const Q t94 = t89 - t92;
        const Q x2_13 = io.pairs(2, 13);
        const Q x7_18 = io.pairs(7, 18);
        // real block of 5, multiplier 2
        const Q t95 = x2_13 + x7_18;
        const Q t96 = x2_13 - x7_18;
        const Q x32_43 = io.pairs(32, 43);
        const Q x52_8 = io.pairs(52, 8);
        const Q t97 = x32_43 + x52_8;
        const Q t98 = x32_43 - x52_8;
        const Q t99 = t95 + t97;
        const Q x17_28 = io.pairs(17, 28);
        const Q t100 = t99 + x17_28;
        const Q t101 = c[0] * t95;
        const Q t102 = x17_28 - t101;
        const Q t103 = c[1] * t97;
        const Q t104 = t102 + t103;
        const Q t105 = c[2] * t96;
        const Q t106 = c[3] * t98;
        const Q t107 = t105 + t106;
        const Q t108 = c[1] * t95;
        const Q t109 = c[0] * t97;
        const Q t110 = t108 - t109;
        const Q t111 = t110 + x17_28;
        const Q t112 = c[3] * t96;
        const Q t113 = c[2] * t98;
        const Q t114 = t112 - t113;
        const Q x12_23 = io.pairs(12, 23);
        const Q x47_3 = io.pairs(47, 3);
        // real block of 5, multiplier 2
        const Q t115 = x12_23 + x47_3;
        const Q t116 = x12_23 - x47_3;
        const Q x42_53 = io.pairs(42, 53);
        const Q x37_48 = io.pairs(37, 48);
        const Q t117 = x42_53 + x37_48;
        const Q t118 = x42_53 - x37_48;
        const Q t119 = t117 + t115;
        const Q x27_38 = io.pairs(27, 38);
        const Q t120 = t119 + x27_38;
        const Q t121 = c[0] * t117;
        const Q t122 = x27_38 - t121;
        const Q t123 = c[1] * t115;
        const Q t124 = t122 + t123;
        const Q t125 = c[2] * t118;
        const Q t126 = c[3] * t116;
        const Q t127 = t125 + t126;
        const Q t128 = c[1] * t117;
        const Q t129 = c[0] * t115;
        const Q t130 = t128 - t129;
        const Q t131 = t130 + x27_38;
        const Q t132 = c[3] * t118;
        const Q t133 = c[2] * t116;
        const Q t134 = t132 - t133;
        // real block of 2
        const Q t135 = t120 + t100;
        const Q t136 = t120 - t100;
        const Q x22_33 = io.pairs(22, 33);
        // complex block of 11, multiplier 5
        const Q t137 = x22_33 + t135;
        const Q t138 = c[12] * t135;
        const Q t139 = x22_33 - t138;
        const Q t140 = shuffled<1, 0, 3, 2>(t136);
        const Q t141 = Q(c[13], -c[13], c[13], -c[13]) * t140;
        // spectrum block of 2
        const Q t142 = t139 + t141;
        const Q t143 = t139 - t141;
        // complex block of 2
        const Q t144 = t124 + t104;
        const Q t145 = t127 + t107;
        const Q t146 = t124 - t104;
        const Q t147 = t107 - t127;
        // complex block of 11, multiplier 5
        const Q t148 = c[4] * t145;
        const Q t149 = c[5] * t144;
        const Q t150 = t148 - t149;
        const Q t151 = shuffled<1, 0, 3, 2>(t146);
        const Q t152 = c[6] * t151;
        const Q t153 = shuffled<1, 0, 3, 2>(t147);
        const Q t154 = c[7] * t153;
        const Q t155 = t152 + t154;
        const Q t156 = flipped<0, 1, 0, 1>(t155);
        // complex block of 2
        const Q t157 = t150 + t156;
        const Q t158 = t150 - t156;
        // complex block of 11, multiplier 5
        const Q t159 = c[5] * t145;
        const Q t160 = c[4] * t144;
        const Q t161 = t159 + t160;
        const Q t162 = Q(-c[6], c[6], -c[6], c[6]) * t153;
        const Q t163 = Q(c[7], -c[7], c[7], -c[7]) * t151;
        const Q t164 = t162 + t163;
        // complex block of 2
        const Q t165 = t161 - t164;
        const Q t166 = t161 + t164;
        // complex block of 2
        const Q t167 = t131 + t111;
        const Q t168 = t134 + t114;
        const Q t169 = t131 - t111;
        const Q t170 = t134 - t114;
        const Q t171 = shuffled<1, 0, 3, 2>(t169);
        // complex block of 11, multiplier 5
        const Q t172 = c[8] * t171;
        const Q t173 = shuffled<1, 0, 3, 2>(t170);
        const Q t174 = c[9] * t173;
        const Q t175 = t172 + t174;
        const Q t176 = c[10] * t168;
        const Q t177 = c[11] * t167;
        const Q t178 = t176 - t177;
        const Q t179 = flipped<1, 0, 1, 0>(t175);
        // complex block of 2
        const Q t180 = t178 + t179;
        const Q t181 = t178 - t179;
        // complex block of 11, multiplier 5
        const Q t182 = Q(-c[9], c[9], -c[9], c[9]) * t171;
        const Q t183 = Q(c[8], -c[8], c[8], -c[8]) * t173;
        const Q t184 = t182 + t183;
        const Q t185 = c[11] * t168;
        const Q t186 = c[10] * t167;
        const Q t187 = t185 + t186;
        // complex block of 2
        const Q t188 = t187 + t184;
        const Q t189 = t184 - t187;
        const Q x9_24 = io.pairs(9, 24);
        const Q x4_29 = io.pairs(4, 29);
        // real block of 5, multiplier 2
        const Q t190 = x9_24 + x4_29;
        const Q t191 = x9_24 - x4_29;
        const Q x34_54 = io.pairs(34, 54);
        const Q x14_19 = io.pairs(14, 19);
        const Q t192 = x34_54 + x14_19;
        const Q t193 = x34_54 - x14_19;
        const Q t194 = t190 + t192;
        const Q x49_39 = io.pairs(49, 39);
        const Q t195 = t194 + x49_39;
        const Q t196 = c[0] * t190;
        const Q t197 = x49_39 - t196;
        const Q t198 = c[1] * t192;
        const Q t199 = t197 + t198;
        const Q t200 = c[2] * t191;
        const Q t201 = c[3] * t193;
        const Q t202 = t200 + t201;
        const Q t203 = c[1] * t190;
        const Q t204 = c[0] * t192;
        const Q t205 = t203 - t204;
        const Q t206 = t205 + x49_39;
        const Q t207 = c[3] * t191;
        const Q t208 = c[2] * t193;
        const Q t209 = t207 - t208;
        const P t210 = part<0>(t195);
        const P t211 = part<1>(t195);
        // real block of 2
        const P t212 = t210 + t211;
        const P t213 = t210 - t211;
        const P x44 = io.pair(44);
        // complex block of 11, multiplier 5
        const P t214 = x44 + t212;
        const P t215 = c[12] * t212;
        const P t216 = x44 - t215;
        const P t217 = shuffled<1, 0>(t213);
        const P t218 = P(c[13], -c[13]) * t217;
        // spectrum block of 2
        const P t219 = t216 + t218;
        const P t220 = t216 - t218;
        const Q t221 = shuffled<0, 1, 4, 5>(t199, t206);
        const Q t222 = shuffled<2, 3, 6, 7>(t199, t206);
        // complex block of 2
        const Q t223 = t221 + t222;
        const Q t224 = shuffled<0, 1, 4, 5>(t202, t209);
        const Q t225 = shuffled<2, 3, 6, 7>(t202, t209);
        const Q t226 = t224 + t225;
        const Q t227 = t221 - t222;
        const Q t228 = shuffled<0, 1, 6, 7>(t225, t224);
        const Q t229 = shuffled<0, 1, 6, 7>(t224, t225);
        const Q t230 = t228 - t229;
        const Q t231 = shuffled<1, 0, 3, 2>(t227);
        // complex block of 11, multiplier 5
        const Q t232 = Q(c[6], c[6], c[8], c[8]) * t231;
        const Q t233 = shuffled<1, 0, 3, 2>(t230);
        const Q t234 = Q(c[7], c[7], c[9], c[9]) * t233;
        const Q t235 = t232 + t234;
        const Q t236 = Q(c[4], c[4], c[10], c[10]) * t226;
        const Q t237 = Q(c[5], c[5], c[11], c[11]) * t223;
        const Q t238 = t236 - t237;
        const Q t239 = flipped<0, 1, 1, 0>(t235);
        // complex block of 2
        const Q t240 = t238 + t239;
        const Q t241 = t238 - t239;
        const Q t242 = shuffled<0, 1, 6, 7>(t233, t231);
        // complex block of 11, multiplier 5
        const Q t243 = Q(-c[6], c[6], -c[9], c[9]) * t242;
        const Q t244 = shuffled<0, 1, 6, 7>(t231, t233);
        const Q t245 = Q(c[7], -c[7], c[8], -c[8]) * t244;
        const Q t246 = t243 + t245;
        const Q t247 = Q(c[5], c[5], c[11], c[11]) * t226;
        const Q t248 = Q(c[4], c[4], c[10], c[10]) * t223;
        const Q t249 = t247 + t248;
        const Q t250 = flipped<1, 1, 0, 0>(t246);
        // complex block of 2
        const Q t251 = t249 + t250;
        const Q t252 = flipped<0, 0, 1, 1>(t249);
        const Q t253 = t246 + t252;
        // spectrum block of 5, multiplier 2
        const Q t254 = t62 + t85;
        const Q t255 = t254 + t47;
        const Q t256 = c[1] * t62;
        const Q t257 = c[0] * t85;
        const Q t258 = t256 - t257;
        const Q t259 = t258 + t47;
        const Q t260 = c[3] * t70;
        const Q t261 = c[2] * t93;
        const Q t262 = t260 - t261;
        const Q t263 = c[0] * t62;
        const Q t264 = t47 - t263;
        const Q t265 = c[1] * t85;
        const Q t266 = t264 + t265;
        const Q t267 = c[2] * t70;
        const Q t268 = c[3] * t93;
        const Q t269 = t267 + t268;
        // spectrum block of 5, multiplier 2
        const Q t270 = t63 + t86;
        const Q t271 = t270 + t48;
        const Q t272 = c[1] * t63;
        const Q t273 = c[0] * t86;
        const Q t274 = t272 - t273;
        const Q t275 = t274 + t48;
        const Q t276 = c[3] * t71;
        const Q t277 = c[2] * t94;
        const Q t278 = t276 + t277;
        const Q t279 = c[0] * t63;
        const Q t280 = t48 - t279;
        const Q t281 = c[1] * t86;
        const Q t282 = t280 + t281;
        const Q t283 = c[2] * t71;
        const Q t284 = c[3] * t94;
        const Q t285 = t283 - t284;
        const Q t286 = shuffled<0, 1, 4, 5>(t240, t241);
        const Q t287 = shuffled<2, 3, 6, 7>(t240, t241);
        // spectrum block of 5, multiplier 2
        const Q t288 = t286 + t287;
        const Q t289 = joined(t219, t220);
        const Q t290 = t288 + t289;
        const Q t291 = c[1] * t286;
        const Q t292 = c[0] * t287;
        const Q t293 = t291 - t292;
        const Q t294 = t293 + t289;
        const Q t295 = shuffled<0, 1, 4, 5>(t251, t253);
        const Q t296 = c[3] * t295;
        const Q t297 = shuffled<2, 3, 6, 7>(t251, t253);
        const Q t298 = Q(-c[2], -c[2], c[2], c[2]) * t297;
        const Q t299 = t296 + t298;
        const Q t300 = c[0] * t286;
        const Q t301 = t289 - t300;
        const Q t302 = c[1] * t287;
        const Q t303 = t301 + t302;
        const Q t304 = c[2] * t295;
        const Q t305 = Q(c[3], c[3], -c[3], -c[3]) * t297;
        const Q t306 = t304 + t305;
        // spectrum block of 5, multiplier 2
        const Q t307 = t259 - t262;
        const Q t308 = t259 + t262;
        const Q t309 = t266 - t269;
        const Q t310 = t266 + t269;
        // spectrum block of 5, multiplier 2
        const Q t311 = t275 - t278;
        const Q t312 = t275 + t278;
        const Q t313 = t282 - t285;
        const Q t314 = t282 + t285;
        // spectrum block of 5, multiplier 2
        const Q t315 = t294 - t299;
        const Q t316 = t294 + t299;
        const Q t317 = t303 - t306;
        const Q t318 = t303 + t306;
        const Q t319 = shuffled<2, 3, 6, 7>(t309, t255);
        const Q t320 = shuffled<0, 1, 4, 5>(t317, t290);
        // complex block of 5
        const Q t321 = t319 + t320;
        const Q t322 = shuffled<2, 3, 6, 7>(t310, t312);
        const Q t323 = shuffled<0, 1, 6, 7>(t318, t316);
        // complex block of 5
        const Q t324 = t322 + t323;
        const Q t325 = shuffled<2, 3, 6, 7>(t314, t307);
        const Q t326 = shuffled<2, 3, 4, 5>(t318, t315);
        // complex block of 5
        const Q t327 = t325 + t326;
        const Q t328 = shuffled<2, 3, 6, 7>(t313, t311);
        const Q t329 = shuffled<2, 3, 6, 7>(t317, t315);
        // complex block of 5
        const Q t330 = t328 + t329;
        const Q t331 = shuffled<2, 3, 6, 7>(t42, t308);
        const P t332 = part<0>(t316);
        const Q t333 = joined(t214, t332);
        // complex block of 5
        const Q t334 = t331 + t333;
        const P t335 = part<1>(t271);
        const P t336 = part<1>(t290);
        // complex block of 5
        const P t337 = t335 + t336;
        const P t338 = t335 - t336;
        // spectrum block of 5, multiplier 2
        const Q t339 = t157 + t180;
        const Q t340 = t339 + t142;
        const Q t341 = c[1] * t157;
        const Q t342 = c[0] * t180;
        const Q t343 = t341 - t342;
        const Q t344 = t343 + t142;
        const Q t345 = c[3] * t165;
        const Q t346 = c[2] * t188;
        const Q t347 = t345 - t346;
        const Q t348 = c[0] * t157;
        const Q t349 = t142 - t348;
        const Q t350 = c[1] * t180;
        const Q t351 = t349 + t350;
        const Q t352 = c[2] * t165;
        const Q t353 = c[3] * t188;
        const Q t354 = t352 + t353;
        // spectrum block of 5, multiplier 2
        const Q t355 = c[1] * t158;
        const Q t356 = c[0] * t181;
        const Q t357 = t355 - t356;
        const Q t358 = t357 + t143;
        const Q t359 = c[3] * t166;
        const Q t360 = c[2] * t189;
        const Q t361 = t359 + t360;
        const Q t362 = c[0] * t158;
        const Q t363 = t143 - t362;
        const Q t364 = c[1] * t181;
        const Q t365 = t363 + t364;
        const Q t366 = c[2] * t166;
        const Q t367 = c[3] * t189;
        const Q t368 = t366 - t367;
        // spectrum block of 5, multiplier 2
        const Q t369 = t344 - t347;
        // spectrum block of 5, multiplier 2
        const Q t370 = t365 + t368;
        const Q t371 = shuffled<2, 3, 6, 7>(t370, t369);
        const Q t372 = shuffled<0, 1, 4, 5>(t370, t369);
        // complex block of 5
        const Q t373 = t371 + t372;
        // spectrum block of 5, multiplier 2
        const Q t374 = t344 + t347;
        const Q t375 = shuffled<2, 3, 6, 7>(t137, t374);
        const Q t376 = shuffled<0, 1, 4, 5>(t137, t374);
        // complex block of 5
        const Q t377 = t375 + t376;
        // spectrum block of 5, multiplier 2
        const Q t378 = t351 - t354;
        const Q t379 = shuffled<2, 3, 6, 7>(t378, t340);
        const Q t380 = shuffled<0, 1, 4, 5>(t378, t340);
        // complex block of 5
        const Q t381 = t379 + t380;
        // spectrum block of 5, multiplier 2
        const Q t382 = t351 + t354;
        // spectrum block of 5, multiplier 2
        const Q t383 = t358 + t361;
        const Q t384 = shuffled<2, 3, 6, 7>(t382, t383);
        const Q t385 = shuffled<0, 1, 4, 5>(t382, t383);
        // complex block of 5
        const Q t386 = t384 + t385;
        // spectrum block of 5, multiplier 2
        const Q t387 = t358 - t361;
        const Q t388 = t365 - t368;
        const Q t389 = shuffled<2, 3, 6, 7>(t388, t387);
        const Q t390 = shuffled<0, 1, 4, 5>(t388, t387);
        // complex block of 5
        const Q t391 = t389 + t390;
        // spectrum block of 5, multiplier 2
        const Q t392 = t158 + t181;
        const Q t393 = t392 + t143;
        const P t394 = part<1>(t393);
        const P t395 = part<0>(t393);
        // complex block of 5
        const P t396 = t394 + t395;
        const P t397 = t394 - t395;
        // complex block of 5
        const Q t398 = t319 - t320;
        const Q t399 = t379 - t380;
        const Q t400 = c[1] * t321;
        const Q t401 = c[0] * t381;
        const Q t402 = t400 - t401;
        const Q t403 = shuffled<0, 1, 4, 5>(t309, t255);
        const Q t404 = c[0] * t321;
        const Q t405 = t403 - t404;
        const Q t406 = t402 + t403;
        const Q t407 = c[3] * t398;
        const Q t408 = c[2] * t399;
        const Q t409 = t407 - t408;
        const Q t410 = shuffled<1, 0, 3, 2>(t409);
        const Q t411 = flipped<0, 1, 0, 1>(t410);
        const Q t412 = t406 + t411;
        const Q t413 = t406 - t411;
        const Q t414 = c[1] * t381;
        const Q t415 = t405 + t414;
        const Q t416 = c[2] * t398;
        const Q t417 = c[3] * t399;
        const Q t418 = t416 + t417;
        const Q t419 = shuffled<1, 0, 3, 2>(t418);
        const Q t420 = flipped<0, 1, 0, 1>(t419);
        const Q t421 = t415 + t420;
        const Q t422 = shuffled<0, 1, 6, 7>(t412, t421);
        io.pairs(26, 27, t422);
        const Q t423 = t415 - t420;
        const Q t424 = shuffled<0, 1, 6, 7>(t421, t423);
        io.pairs(37, 38, t424);
        const Q t425 = shuffled<0, 1, 6, 7>(t423, t413);
        io.pairs(48, 49, t425);
        const Q t426 = t321 + t381;
        const Q t427 = t426 + t403;
        const Q t428 = shuffled<0, 1, 6, 7>(t413, t427);
        io.pairs(4, 5, t428);
        const Q t429 = shuffled<0, 1, 6, 7>(t427, t412);
        io.pairs(15, 16, t429);
        // complex block of 5
        const Q t430 = t322 - t323;
        const Q t431 = t384 - t385;
        const Q t432 = c[1] * t324;
        const Q t433 = c[0] * t386;
        const Q t434 = t432 - t433;
        const Q t435 = shuffled<0, 1, 4, 5>(t310, t312);
        const Q t436 = c[0] * t324;
        const Q t437 = t435 - t436;
        const Q t438 = t434 + t435;
        const Q t439 = c[3] * t430;
        const Q t440 = c[2] * t431;
        const Q t441 = t439 - t440;
        const Q t442 = shuffled<1, 0, 3, 2>(t441);
        const Q t443 = flipped<0, 1, 0, 1>(t442);
        const Q t444 = t438 + t443;
        const Q t445 = t438 - t443;
        const Q t446 = c[1] * t386;
        const Q t447 = t437 + t446;
        const Q t448 = c[2] * t430;
        const Q t449 = c[3] * t431;
        const Q t450 = t448 + t449;
        const Q t451 = shuffled<1, 0, 3, 2>(t450);
        const Q t452 = flipped<0, 1, 0, 1>(t451);
        const Q t453 = t447 + t452;
        const Q t454 = shuffled<0, 1, 6, 7>(t444, t453);
        io.pairs(31, 32, t454);
        const Q t455 = t447 - t452;
        const Q t456 = shuffled<0, 1, 6, 7>(t453, t455);
        io.pairs(42, 43, t456);
        const Q t457 = shuffled<0, 1, 6, 7>(t455, t445);
        io.pairs(53, 54, t457);
        const Q t458 = t324 + t386;
        const Q t459 = t458 + t435;
        const Q t460 = shuffled<0, 1, 6, 7>(t445, t459);
        io.pairs(9, 10, t460);
        const Q t461 = shuffled<0, 1, 6, 7>(t459, t444);
        io.pairs(20, 21, t461);
        // complex block of 5
        const Q t462 = t325 - t326;
        const Q t463 = t371 - t372;
        const Q t464 = c[1] * t327;
        const Q t465 = c[0] * t373;
        const Q t466 = t464 - t465;
        const Q t467 = shuffled<0, 1, 4, 5>(t314, t307);
        const Q t468 = c[0] * t327;
        const Q t469 = t467 - t468;
        const Q t470 = t466 + t467;
        const Q t471 = c[3] * t462;
        const Q t472 = c[2] * t463;
        const Q t473 = t471 - t472;
        const Q t474 = shuffled<1, 0, 3, 2>(t473);
        const Q t475 = flipped<0, 1, 0, 1>(t474);
        const Q t476 = t470 + t475;
        const Q t477 = t470 - t475;
        const Q t478 = c[1] * t373;
        const Q t479 = t469 + t478;
        const Q t480 = c[2] * t462;
        const Q t481 = c[3] * t463;
        const Q t482 = t480 + t481;
        const Q t483 = shuffled<1, 0, 3, 2>(t482);
        const Q t484 = flipped<0, 1, 0, 1>(t483);
        const Q t485 = t479 + t484;
        const Q t486 = shuffled<0, 1, 6, 7>(t476, t485);
        io.pairs(46, 47, t486);
        const Q t487 = t479 - t484;
        const Q t488 = shuffled<0, 1, 6, 7>(t485, t487);
        io.pairs(2, 3, t488);
        const Q t489 = shuffled<0, 1, 6, 7>(t487, t477);
        io.pairs(13, 14, t489);
        const Q t490 = t327 + t373;
        const Q t491 = t490 + t467;
        const Q t492 = shuffled<0, 1, 6, 7>(t477, t491);
        io.pairs(24, 25, t492);
        const Q t493 = shuffled<0, 1, 6, 7>(t491, t476);
        io.pairs(35, 36, t493);
        // complex block of 5
        const Q t494 = t328 - t329;
        const Q t495 = t389 - t390;
        const Q t496 = c[1] * t330;
        const Q t497 = c[0] * t391;
        const Q t498 = t496 - t497;
        const Q t499 = shuffled<0, 1, 4, 5>(t313, t311);
        const Q t500 = c[0] * t330;
        const Q t501 = t499 - t500;
        const Q t502 = t498 + t499;
        const Q t503 = c[3] * t494;
        const Q t504 = c[2] * t495;
        const Q t505 = t503 - t504;
        const Q t506 = shuffled<1, 0, 3, 2>(t505);
        const Q t507 = flipped<0, 1, 0, 1>(t506);
        const Q t508 = t502 + t507;
        const Q t509 = t502 - t507;
        const Q t510 = c[1] * t391;
        const Q t511 = t501 + t510;
        const Q t512 = c[2] * t494;
        const Q t513 = c[3] * t495;
        const Q t514 = t512 + t513;
        const Q t515 = shuffled<1, 0, 3, 2>(t514);
        const Q t516 = flipped<0, 1, 0, 1>(t515);
        const Q t517 = t511 + t516;
        const Q t518 = shuffled<0, 1, 6, 7>(t508, t517);
        io.pairs(51, 52, t518);
        const Q t519 = t511 - t516;
        const Q t520 = shuffled<0, 1, 6, 7>(t517, t519);
        io.pairs(7, 8, t520);
        const Q t521 = shuffled<0, 1, 6, 7>(t519, t509);
        io.pairs(18, 19, t521);
        const Q t522 = t330 + t391;
        const Q t523 = t522 + t499;
        const Q t524 = shuffled<0, 1, 6, 7>(t509, t523);
        io.pairs(29, 30, t524);
        const Q t525 = shuffled<0, 1, 6, 7>(t523, t508);
        io.pairs(40, 41, t525);
        // complex block of 5
        const Q t526 = t331 - t333;
        const Q t527 = t375 - t376;
        const Q t528 = c[1] * t334;
        const Q t529 = c[0] * t377;
        const Q t530 = t528 - t529;
        const Q t531 = shuffled<0, 1, 4, 5>(t42, t308);
        const Q t532 = c[0] * t334;
        const Q t533 = t531 - t532;
        const Q t534 = t530 + t531;
        const Q t535 = c[3] * t526;
        const Q t536 = c[2] * t527;
        const Q t537 = t535 - t536;
        const Q t538 = shuffled<1, 0, 3, 2>(t537);
        const Q t539 = flipped<0, 1, 0, 1>(t538);
        const Q t540 = t534 + t539;
        const Q t541 = t534 - t539;
        const Q t542 = c[1] * t377;
        const Q t543 = t533 + t542;
        const Q t544 = c[2] * t526;
        const Q t545 = c[3] * t527;
        const Q t546 = t544 + t545;
        const Q t547 = shuffled<1, 0, 3, 2>(t546);
        const Q t548 = flipped<0, 1, 0, 1>(t547);
        const Q t549 = t543 + t548;
        const Q t550 = shuffled<0, 1, 6, 7>(t540, t549);
        io.pairs(11, 12, t550);
        const Q t551 = t543 - t548;
        const Q t552 = shuffled<0, 1, 6, 7>(t549, t551);
        io.pairs(22, 23, t552);
        const Q t553 = shuffled<0, 1, 6, 7>(t551, t541);
        io.pairs(33, 34, t553);
        const Q t554 = t334 + t377;
        const Q t555 = t554 + t531;
        const Q t556 = shuffled<0, 1, 6, 7>(t555, t540);
        io.pairs(0, 1, t556);
        const Q t557 = shuffled<0, 1, 6, 7>(t541, t555);
        io.pairs(44, 45, t557);
        // complex block of 5
        const P t558 = t337 + t396;
        const P t559 = part<0>(t271);
        const P t560 = t558 + t559;
        io.pair(50, t560);
        const P t561 = c[1] * t337;
        const P t562 = c[0] * t396;
        const P t563 = t561 - t562;
        const P t564 = t563 + t559;
        const P t565 = c[3] * t338;
        const P t566 = c[2] * t397;
        const P t567 = t565 - t566;
        const P t568 = shuffled<1, 0>(t567);
        const P t569 = flipped<0, 1>(t568);
        const P t570 = t564 + t569;
        io.pair(6, t570);
        const P t571 = t564 - t569;
        io.pair(39, t571);
        const P t572 = c[0] * t337;
        const P t573 = t559 - t572;
        const P t574 = c[1] * t396;
        const P t575 = t573 + t574;
        const P t576 = c[2] * t338;
        const P t577 = c[3] * t397;
        const P t578 = t576 + t577;
        const P t579 = shuffled<1, 0>(t578);
        const P t580 = flipped<0, 1>(t579);
        const P t581 = t575 + t580;
        io.pair(17, t581);
        const P t582 = t575 - t580;
        io.pair(28, t582);
    }
};

}  // namespace zulg
