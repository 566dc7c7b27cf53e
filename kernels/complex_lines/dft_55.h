// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 55.
// Complex DFT of 55 points, prime-factor, order 11, 5; two lines of a stage to a register.
// 170 sums, 124 differences, 174 products of registers, which do the 1918 steps of the graph, those with
// `scale` included; 67 shuffles, 19 changes of sign.
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
        // spectrum block of 5, multiplier 2
        const Q t256 = t63 + t86;
        const Q t257 = t256 + t48;
        const Q t258 = shuffled<0, 1, 4, 5>(t240, t241);
        const Q t259 = shuffled<2, 3, 6, 7>(t240, t241);
        // spectrum block of 5, multiplier 2
        const Q t260 = t258 + t259;
        const Q t261 = joined(t219, t220);
        const Q t262 = t260 + t261;
        const Q t263 = shuffled<2, 3, 6, 7>(t42, t255);
        const P t264 = part<0>(t262);
        const Q t265 = joined(t214, t264);
        // complex block of 5
        const Q t266 = t263 + t265;
        const Q t267 = t263 - t265;
        const P t268 = part<1>(t257);
        const P t269 = part<1>(t262);
        // complex block of 5
        const P t270 = t268 + t269;
        const P t271 = t268 - t269;
        // spectrum block of 5, multiplier 2
        const Q t272 = t157 + t180;
        const Q t273 = t272 + t142;
        const Q t274 = shuffled<2, 3, 6, 7>(t137, t273);
        const Q t275 = shuffled<0, 1, 4, 5>(t137, t273);
        // complex block of 5
        const Q t276 = t274 + t275;
        const Q t277 = t274 - t275;
        // spectrum block of 5, multiplier 2
        const Q t278 = t158 + t181;
        const Q t279 = t278 + t143;
        const P t280 = part<1>(t279);
        const P t281 = part<0>(t279);
        // complex block of 5
        const P t282 = t280 + t281;
        const P t283 = t280 - t281;
        // complex block of 5
        const Q t284 = t266 + t276;
        const Q t285 = shuffled<0, 1, 4, 5>(t42, t255);
        const Q t286 = t284 + t285;
        io.pairs(0, 5, t286);
        const Q t287 = c[1] * t266;
        const Q t288 = c[0] * t276;
        const Q t289 = t287 - t288;
        const Q t290 = t289 + t285;
        const Q t291 = c[3] * t267;
        const Q t292 = c[2] * t277;
        const Q t293 = t291 - t292;
        const Q t294 = shuffled<1, 0, 3, 2>(t293);
        const Q t295 = flipped<0, 1, 0, 1>(t294);
        const Q t296 = t290 + t295;
        io.pairs(11, 16, t296);
        const Q t297 = t290 - t295;
        io.pairs(44, 49, t297);
        const Q t298 = c[0] * t266;
        const Q t299 = t285 - t298;
        const Q t300 = c[1] * t276;
        const Q t301 = t299 + t300;
        const Q t302 = c[2] * t267;
        const Q t303 = c[3] * t277;
        const Q t304 = t302 + t303;
        const Q t305 = shuffled<1, 0, 3, 2>(t304);
        const Q t306 = flipped<0, 1, 0, 1>(t305);
        const Q t307 = t301 + t306;
        io.pairs(22, 27, t307);
        const Q t308 = t301 - t306;
        io.pairs(33, 38, t308);
        // complex block of 5
        const P t309 = t270 + t282;
        const P t310 = part<0>(t257);
        const P t311 = t309 + t310;
        io.pair(50, t311);
        const P t312 = c[1] * t270;
        const P t313 = c[0] * t282;
        const P t314 = t312 - t313;
        const P t315 = t314 + t310;
        const P t316 = c[3] * t271;
        const P t317 = c[2] * t283;
        const P t318 = t316 - t317;
        const P t319 = shuffled<1, 0>(t318);
        const P t320 = flipped<0, 1>(t319);
        const P t321 = t315 + t320;
        io.pair(6, t321);
        const P t322 = t315 - t320;
        io.pair(39, t322);
        const P t323 = c[0] * t270;
        const P t324 = t310 - t323;
        const P t325 = c[1] * t282;
        const P t326 = t324 + t325;
        const P t327 = c[2] * t271;
        const P t328 = c[3] * t283;
        const P t329 = t327 + t328;
        const P t330 = shuffled<1, 0>(t329);
        const P t331 = flipped<0, 1>(t330);
        const P t332 = t326 + t331;
        io.pair(17, t332);
        const P t333 = t326 - t331;
        io.pair(28, t333);
        // spectrum block of 5, multiplier 2
        const Q t334 = c[1] * t62;
        const Q t335 = c[0] * t85;
        const Q t336 = t334 - t335;
        const Q t337 = t336 + t47;
        const Q t338 = c[3] * t70;
        const Q t339 = c[2] * t93;
        const Q t340 = t338 - t339;
        const Q t341 = c[0] * t62;
        const Q t342 = t47 - t341;
        const Q t343 = c[1] * t85;
        const Q t344 = t342 + t343;
        const Q t345 = c[2] * t70;
        const Q t346 = c[3] * t93;
        const Q t347 = t345 + t346;
        // spectrum block of 5, multiplier 2
        const Q t348 = c[1] * t63;
        const Q t349 = c[0] * t86;
        const Q t350 = t348 - t349;
        const Q t351 = t350 + t48;
        const Q t352 = c[3] * t71;
        const Q t353 = c[2] * t94;
        const Q t354 = t352 + t353;
        const Q t355 = c[0] * t63;
        const Q t356 = t48 - t355;
        const Q t357 = c[1] * t86;
        const Q t358 = t356 + t357;
        const Q t359 = c[2] * t71;
        const Q t360 = c[3] * t94;
        const Q t361 = t359 - t360;
        // spectrum block of 5, multiplier 2
        const Q t362 = c[1] * t258;
        const Q t363 = c[0] * t259;
        const Q t364 = t362 - t363;
        const Q t365 = t364 + t261;
        const Q t366 = shuffled<0, 1, 4, 5>(t251, t253);
        const Q t367 = c[3] * t366;
        const Q t368 = shuffled<2, 3, 6, 7>(t251, t253);
        const Q t369 = Q(-c[2], -c[2], c[2], c[2]) * t368;
        const Q t370 = t367 + t369;
        const Q t371 = c[0] * t258;
        const Q t372 = t261 - t371;
        const Q t373 = c[1] * t259;
        const Q t374 = t372 + t373;
        const Q t375 = c[2] * t366;
        const Q t376 = Q(c[3], c[3], -c[3], -c[3]) * t368;
        const Q t377 = t375 + t376;
        // spectrum block of 5, multiplier 2
        const Q t378 = t337 - t340;
        const Q t379 = t344 + t347;
        // spectrum block of 5, multiplier 2
        const Q t380 = t351 - t354;
        const Q t381 = t358 + t361;
        // spectrum block of 5, multiplier 2
        const Q t382 = t365 - t370;
        const Q t383 = t374 + t377;
        const Q t384 = shuffled<2, 3, 6, 7>(t379, t378);
        const Q t385 = shuffled<0, 1, 4, 5>(t383, t382);
        // complex block of 5
        const Q t386 = t384 + t385;
        const Q t387 = shuffled<2, 3, 6, 7>(t380, t381);
        const Q t388 = shuffled<2, 3, 6, 7>(t382, t383);
        // complex block of 5
        const Q t389 = t387 + t388;
        // spectrum block of 5, multiplier 2
        const Q t390 = t337 + t340;
        const Q t391 = t344 - t347;
        // spectrum block of 5, multiplier 2
        const Q t392 = t351 + t354;
        const Q t393 = t358 - t361;
        // spectrum block of 5, multiplier 2
        const Q t394 = t365 + t370;
        const Q t395 = t374 - t377;
        const Q t396 = shuffled<2, 3, 6, 7>(t392, t391);
        const Q t397 = shuffled<2, 3, 4, 5>(t394, t395);
        // complex block of 5
        const Q t398 = t396 + t397;
        const Q t399 = shuffled<2, 3, 6, 7>(t393, t390);
        const Q t400 = shuffled<2, 3, 4, 5>(t395, t394);
        // complex block of 5
        const Q t401 = t399 + t400;
        // spectrum block of 5, multiplier 2
        const Q t402 = c[1] * t157;
        const Q t403 = c[0] * t180;
        const Q t404 = t402 - t403;
        const Q t405 = t404 + t142;
        const Q t406 = c[3] * t165;
        const Q t407 = c[2] * t188;
        const Q t408 = t406 - t407;
        const Q t409 = c[0] * t157;
        const Q t410 = t142 - t409;
        const Q t411 = c[1] * t180;
        const Q t412 = t410 + t411;
        const Q t413 = c[2] * t165;
        const Q t414 = c[3] * t188;
        const Q t415 = t413 + t414;
        // spectrum block of 5, multiplier 2
        const Q t416 = c[1] * t158;
        const Q t417 = c[0] * t181;
        const Q t418 = t416 - t417;
        const Q t419 = t418 + t143;
        const Q t420 = c[3] * t166;
        const Q t421 = c[2] * t189;
        const Q t422 = t420 + t421;
        const Q t423 = c[0] * t158;
        const Q t424 = t143 - t423;
        const Q t425 = c[1] * t181;
        const Q t426 = t424 + t425;
        const Q t427 = c[2] * t166;
        const Q t428 = c[3] * t189;
        const Q t429 = t427 - t428;
        // spectrum block of 5, multiplier 2
        const Q t430 = t405 - t408;
        const Q t431 = t412 + t415;
        const Q t432 = shuffled<2, 3, 6, 7>(t431, t430);
        const Q t433 = shuffled<0, 1, 4, 5>(t431, t430);
        // complex block of 5
        const Q t434 = t432 + t433;
        // spectrum block of 5, multiplier 2
        const Q t435 = t405 + t408;
        // spectrum block of 5, multiplier 2
        const Q t436 = t426 - t429;
        const Q t437 = shuffled<2, 3, 6, 7>(t436, t435);
        const Q t438 = shuffled<0, 1, 4, 5>(t436, t435);
        // complex block of 5
        const Q t439 = t437 + t438;
        // spectrum block of 5, multiplier 2
        const Q t440 = t412 - t415;
        // spectrum block of 5, multiplier 2
        const Q t441 = t419 + t422;
        const Q t442 = shuffled<2, 3, 6, 7>(t441, t440);
        const Q t443 = shuffled<0, 1, 4, 5>(t441, t440);
        // complex block of 5
        const Q t444 = t442 + t443;
        // spectrum block of 5, multiplier 2
        const Q t445 = t419 - t422;
        const Q t446 = t426 + t429;
        const Q t447 = shuffled<2, 3, 6, 7>(t445, t446);
        const Q t448 = shuffled<0, 1, 4, 5>(t445, t446);
        // complex block of 5
        const Q t449 = t447 + t448;
        // complex block of 5
        const Q t450 = t396 - t397;
        const Q t451 = t442 - t443;
        const Q t452 = c[1] * t398;
        const Q t453 = c[0] * t444;
        const Q t454 = t452 - t453;
        const Q t455 = shuffled<0, 1, 4, 5>(t392, t391);
        const Q t456 = c[0] * t398;
        const Q t457 = t455 - t456;
        const Q t458 = t454 + t455;
        const Q t459 = c[3] * t450;
        const Q t460 = c[2] * t451;
        const Q t461 = t459 - t460;
        const Q t462 = shuffled<1, 0, 3, 2>(t461);
        const Q t463 = flipped<0, 1, 0, 1>(t462);
        const Q t464 = t458 + t463;
        io.pairs(21, 26, t464);
        const Q t465 = t458 - t463;
        io.pairs(54, 4, t465);
        const Q t466 = c[1] * t444;
        const Q t467 = t457 + t466;
        const Q t468 = c[2] * t450;
        const Q t469 = c[3] * t451;
        const Q t470 = t468 + t469;
        const Q t471 = shuffled<1, 0, 3, 2>(t470);
        const Q t472 = flipped<0, 1, 0, 1>(t471);
        const Q t473 = t467 + t472;
        io.pairs(32, 37, t473);
        const Q t474 = t467 - t472;
        io.pairs(43, 48, t474);
        const Q t475 = t398 + t444;
        const Q t476 = t475 + t455;
        io.pairs(10, 15, t476);
        // complex block of 5
        const Q t477 = t384 - t385;
        const Q t478 = t432 - t433;
        const Q t479 = c[1] * t386;
        const Q t480 = c[0] * t434;
        const Q t481 = t479 - t480;
        const Q t482 = shuffled<0, 1, 4, 5>(t379, t378);
        const Q t483 = c[0] * t386;
        const Q t484 = t482 - t483;
        const Q t485 = t481 + t482;
        const Q t486 = c[3] * t477;
        const Q t487 = c[2] * t478;
        const Q t488 = t486 - t487;
        const Q t489 = shuffled<1, 0, 3, 2>(t488);
        const Q t490 = flipped<0, 1, 0, 1>(t489);
        const Q t491 = t485 + t490;
        io.pairs(31, 36, t491);
        const Q t492 = t485 - t490;
        io.pairs(9, 14, t492);
        const Q t493 = c[1] * t434;
        const Q t494 = t484 + t493;
        const Q t495 = c[2] * t477;
        const Q t496 = c[3] * t478;
        const Q t497 = t495 + t496;
        const Q t498 = shuffled<1, 0, 3, 2>(t497);
        const Q t499 = flipped<0, 1, 0, 1>(t498);
        const Q t500 = t494 + t499;
        io.pairs(42, 47, t500);
        const Q t501 = t494 - t499;
        io.pairs(53, 3, t501);
        const Q t502 = t386 + t434;
        const Q t503 = t502 + t482;
        io.pairs(20, 25, t503);
        // complex block of 5
        const Q t504 = t387 - t388;
        const Q t505 = t447 - t448;
        const Q t506 = c[1] * t389;
        const Q t507 = c[0] * t449;
        const Q t508 = t506 - t507;
        const Q t509 = shuffled<0, 1, 4, 5>(t380, t381);
        const Q t510 = c[0] * t389;
        const Q t511 = t509 - t510;
        const Q t512 = t508 + t509;
        const Q t513 = c[3] * t504;
        const Q t514 = c[2] * t505;
        const Q t515 = t513 - t514;
        const Q t516 = shuffled<1, 0, 3, 2>(t515);
        const Q t517 = flipped<0, 1, 0, 1>(t516);
        const Q t518 = t512 + t517;
        io.pairs(41, 46, t518);
        const Q t519 = t512 - t517;
        io.pairs(19, 24, t519);
        const Q t520 = c[1] * t449;
        const Q t521 = t511 + t520;
        const Q t522 = c[2] * t504;
        const Q t523 = c[3] * t505;
        const Q t524 = t522 + t523;
        const Q t525 = shuffled<1, 0, 3, 2>(t524);
        const Q t526 = flipped<0, 1, 0, 1>(t525);
        const Q t527 = t521 + t526;
        io.pairs(52, 2, t527);
        const Q t528 = t521 - t526;
        io.pairs(8, 13, t528);
        const Q t529 = t389 + t449;
        const Q t530 = t529 + t509;
        io.pairs(30, 35, t530);
        // complex block of 5
        const Q t531 = t399 - t400;
        const Q t532 = t437 - t438;
        const Q t533 = c[1] * t401;
        const Q t534 = c[0] * t439;
        const Q t535 = t533 - t534;
        const Q t536 = shuffled<0, 1, 4, 5>(t393, t390);
        const Q t537 = c[0] * t401;
        const Q t538 = t536 - t537;
        const Q t539 = t535 + t536;
        const Q t540 = c[3] * t531;
        const Q t541 = c[2] * t532;
        const Q t542 = t540 - t541;
        const Q t543 = shuffled<1, 0, 3, 2>(t542);
        const Q t544 = flipped<0, 1, 0, 1>(t543);
        const Q t545 = t539 + t544;
        io.pairs(51, 1, t545);
        const Q t546 = t539 - t544;
        io.pairs(29, 34, t546);
        const Q t547 = c[1] * t439;
        const Q t548 = t538 + t547;
        const Q t549 = c[2] * t531;
        const Q t550 = c[3] * t532;
        const Q t551 = t549 + t550;
        const Q t552 = shuffled<1, 0, 3, 2>(t551);
        const Q t553 = flipped<0, 1, 0, 1>(t552);
        const Q t554 = t548 + t553;
        io.pairs(7, 12, t554);
        const Q t555 = t548 - t553;
        io.pairs(18, 23, t555);
        const Q t556 = t401 + t439;
        const Q t557 = t556 + t536;
        io.pairs(40, 45, t557);
    }
};

}  // namespace zulg
