// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 55.
// Complex DFT of 55 points, prime-factor, order 11, 5; two lines of a stage to a register.
// 187 sums, 139 differences, 190 products of registers, which do the 1918 steps of the graph, those with
// `scale` included; 65 shuffles, 18 changes of sign.
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
        0.4015958813743768,  // c[4]: -Q[1] of 11
        0.527940098934659,  // c[5]: -P[1] of 11
        0.6258085634010283,  // c[6]: Q[2] of 11
        0.21991735259851847,  // c[7]: -P[2] of 11
        0.35166595918026655,  // c[8]: Q[3] of 11
        0.5624331543870997,  // c[9]: P[3] of 11
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
        const Q x20_31 = io.pairs(20, 31);
        const Q x15_26 = io.pairs(15, 26);
        // real block of 5, multiplier 2
        const Q t0 = x20_31 + x15_26;
        const Q t1 = x20_31 - x15_26;
        const Q x45_1 = io.pairs(45, 1);
        const Q x25_36 = io.pairs(25, 36);
        const Q t2 = x45_1 + x25_36;
        const Q t3 = x45_1 - x25_36;
        const Q t4 = t0 + t2;
        const Q x5_16 = io.pairs(5, 16);
        const Q t5 = t4 + x5_16;
        const Q t6 = c[0] * t0;
        const Q t7 = x5_16 - t6;
        const Q t8 = c[1] * t2;
        const Q t9 = t7 + t8;
        const Q t10 = c[2] * t1;
        const Q t11 = c[3] * t3;
        const Q t12 = t10 + t11;
        const Q t13 = c[1] * t0;
        const Q t14 = c[0] * t2;
        const Q t15 = t13 - t14;
        const Q t16 = t15 + x5_16;
        const Q t17 = c[3] * t1;
        const Q t18 = c[2] * t3;
        const Q t19 = t17 - t18;
        const Q x35_46 = io.pairs(35, 46);
        const Q x40_51 = io.pairs(40, 51);
        // real block of 5, multiplier 2
        const Q t20 = x35_46 + x40_51;
        const Q t21 = x35_46 - x40_51;
        const Q x10_21 = io.pairs(10, 21);
        const Q x30_41 = io.pairs(30, 41);
        const Q t22 = x10_21 + x30_41;
        const Q t23 = x10_21 - x30_41;
        const Q t24 = t20 + t22;
        const Q x50_6 = io.pairs(50, 6);
        const Q t25 = t24 + x50_6;
        const Q t26 = c[0] * t20;
        const Q t27 = x50_6 - t26;
        const Q t28 = c[1] * t22;
        const Q t29 = t27 + t28;
        const Q t30 = c[2] * t21;
        const Q t31 = c[3] * t23;
        const Q t32 = t30 + t31;
        const Q t33 = c[1] * t20;
        const Q t34 = c[0] * t22;
        const Q t35 = t33 - t34;
        const Q t36 = t35 + x50_6;
        const Q t37 = c[3] * t21;
        const Q t38 = c[2] * t23;
        const Q t39 = t37 - t38;
        // real block of 2
        const Q t40 = t5 + t25;
        const Q t41 = t5 - t25;
        // complex block of 2
        const Q t42 = t9 + t29;
        const Q t43 = t12 + t32;
        const Q t44 = t9 - t29;
        const Q t45 = t32 - t12;
        // complex block of 2
        const Q t46 = t16 + t36;
        const Q t47 = t19 + t39;
        const Q t48 = t16 - t36;
        const Q t49 = t19 - t39;
        const Q x0_11 = io.pairs(0, 11);
        // complex block of 11, multiplier 5
        const Q t50 = x0_11 + t40;
        const Q t51 = c[12] * t40;
        const Q t52 = x0_11 - t51;
        const Q t53 = shuffled<1, 0, 3, 2>(t48);
        const Q t54 = c[4] * t53;
        const Q t55 = shuffled<1, 0, 3, 2>(t49);
        const Q t56 = c[5] * t55;
        const Q t57 = t54 + t56;
        const Q t58 = Q(-c[5], c[5], -c[5], c[5]) * t53;
        const Q t59 = Q(c[4], -c[4], c[4], -c[4]) * t55;
        const Q t60 = t58 + t59;
        const Q t61 = c[6] * t43;
        const Q t62 = c[7] * t42;
        const Q t63 = t61 - t62;
        const Q t64 = c[7] * t43;
        const Q t65 = c[6] * t42;
        const Q t66 = t64 + t65;
        const Q t67 = shuffled<1, 0, 3, 2>(t44);
        const Q t68 = c[8] * t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t45);
        const Q t70 = c[9] * t69;
        const Q t71 = t68 + t70;
        const Q t72 = Q(-c[8], c[8], -c[8], c[8]) * t69;
        const Q t73 = Q(c[9], -c[9], c[9], -c[9]) * t67;
        const Q t74 = t72 + t73;
        const Q t75 = c[10] * t47;
        const Q t76 = c[11] * t46;
        const Q t77 = t75 - t76;
        const Q t78 = c[11] * t47;
        const Q t79 = c[10] * t46;
        const Q t80 = t78 + t79;
        const Q t81 = shuffled<1, 0, 3, 2>(t41);
        const Q t82 = Q(c[13], -c[13], c[13], -c[13]) * t81;
        // spectrum block of 2
        const Q t83 = t52 + t82;
        const Q t84 = t52 - t82;
        // complex block of 2
        const Q t85 = t66 - t74;
        const Q t86 = flipped<0, 1, 0, 1>(t71);
        const Q t87 = t63 + t86;
        const Q t88 = t66 + t74;
        const Q t89 = t63 - t86;
        // complex block of 2
        const Q t90 = t80 + t60;
        const Q t91 = flipped<1, 0, 1, 0>(t57);
        const Q t92 = t77 + t91;
        const Q t93 = t60 - t80;
        const Q t94 = t77 - t91;
        // spectrum block of 5, multiplier 2
        const Q t95 = t87 + t92;
        const Q t96 = t95 + t83;
        const Q t97 = c[1] * t87;
        const Q t98 = c[0] * t92;
        const Q t99 = t97 - t98;
        const Q t100 = t99 + t83;
        const Q t101 = c[3] * t85;
        const Q t102 = c[2] * t90;
        const Q t103 = t101 - t102;
        const Q t104 = t100 - t103;
        const Q t105 = t100 + t103;
        const Q t106 = c[0] * t87;
        const Q t107 = t83 - t106;
        const Q t108 = c[1] * t92;
        const Q t109 = t107 + t108;
        const Q t110 = c[2] * t85;
        const Q t111 = c[3] * t90;
        const Q t112 = t110 + t111;
        const Q t113 = t109 - t112;
        const Q t114 = t109 + t112;
        // spectrum block of 5, multiplier 2
        const Q t115 = t89 + t94;
        const Q t116 = t115 + t84;
        const Q t117 = c[1] * t89;
        const Q t118 = c[0] * t94;
        const Q t119 = t117 - t118;
        const Q t120 = t119 + t84;
        const Q t121 = c[3] * t88;
        const Q t122 = c[2] * t93;
        const Q t123 = t121 + t122;
        const Q t124 = t120 - t123;
        const Q t125 = t120 + t123;
        const Q t126 = c[0] * t89;
        const Q t127 = t84 - t126;
        const Q t128 = c[1] * t94;
        const Q t129 = t127 + t128;
        const Q t130 = c[2] * t88;
        const Q t131 = c[3] * t93;
        const Q t132 = t130 - t131;
        const Q t133 = t129 - t132;
        const Q t134 = t129 + t132;
        const Q x42_53 = io.pairs(42, 53);
        const Q x37_48 = io.pairs(37, 48);
        // real block of 5, multiplier 2
        const Q t135 = x42_53 + x37_48;
        const Q t136 = x42_53 - x37_48;
        const Q x12_23 = io.pairs(12, 23);
        const Q x47_3 = io.pairs(47, 3);
        const Q t137 = x12_23 + x47_3;
        const Q t138 = x12_23 - x47_3;
        const Q t139 = t135 + t137;
        const Q x27_38 = io.pairs(27, 38);
        const Q t140 = t139 + x27_38;
        const Q t141 = c[0] * t135;
        const Q t142 = x27_38 - t141;
        const Q t143 = c[1] * t137;
        const Q t144 = t142 + t143;
        const Q t145 = c[2] * t136;
        const Q t146 = c[3] * t138;
        const Q t147 = t145 + t146;
        const Q t148 = c[1] * t135;
        const Q t149 = c[0] * t137;
        const Q t150 = t148 - t149;
        const Q t151 = t150 + x27_38;
        const Q t152 = c[3] * t136;
        const Q t153 = c[2] * t138;
        const Q t154 = t152 - t153;
        const Q x2_13 = io.pairs(2, 13);
        const Q x7_18 = io.pairs(7, 18);
        // real block of 5, multiplier 2
        const Q t155 = x2_13 + x7_18;
        const Q t156 = x2_13 - x7_18;
        const Q x32_43 = io.pairs(32, 43);
        const Q x52_8 = io.pairs(52, 8);
        const Q t157 = x32_43 + x52_8;
        const Q t158 = x32_43 - x52_8;
        const Q t159 = t155 + t157;
        const Q x17_28 = io.pairs(17, 28);
        const Q t160 = t159 + x17_28;
        const Q t161 = c[0] * t155;
        const Q t162 = x17_28 - t161;
        const Q t163 = c[1] * t157;
        const Q t164 = t162 + t163;
        const Q t165 = c[2] * t156;
        const Q t166 = c[3] * t158;
        const Q t167 = t165 + t166;
        const Q t168 = c[1] * t155;
        const Q t169 = c[0] * t157;
        const Q t170 = t168 - t169;
        const Q t171 = t170 + x17_28;
        const Q t172 = c[3] * t156;
        const Q t173 = c[2] * t158;
        const Q t174 = t172 - t173;
        // real block of 2
        const Q t175 = t140 + t160;
        const Q t176 = t140 - t160;
        // complex block of 2
        const Q t177 = t144 + t164;
        const Q t178 = t147 + t167;
        const Q t179 = t144 - t164;
        const Q t180 = t167 - t147;
        // complex block of 2
        const Q t181 = t151 + t171;
        const Q t182 = t154 + t174;
        const Q t183 = t151 - t171;
        const Q t184 = t154 - t174;
        const Q x22_33 = io.pairs(22, 33);
        // complex block of 11, multiplier 5
        const Q t185 = x22_33 + t175;
        const Q t186 = c[12] * t175;
        const Q t187 = x22_33 - t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t183);
        const Q t189 = c[4] * t188;
        const Q t190 = shuffled<1, 0, 3, 2>(t184);
        const Q t191 = c[5] * t190;
        const Q t192 = t189 + t191;
        const Q t193 = Q(-c[5], c[5], -c[5], c[5]) * t188;
        const Q t194 = Q(c[4], -c[4], c[4], -c[4]) * t190;
        const Q t195 = t193 + t194;
        const Q t196 = c[6] * t178;
        const Q t197 = c[7] * t177;
        const Q t198 = t196 - t197;
        const Q t199 = c[7] * t178;
        const Q t200 = c[6] * t177;
        const Q t201 = t199 + t200;
        const Q t202 = shuffled<1, 0, 3, 2>(t179);
        const Q t203 = c[8] * t202;
        const Q t204 = shuffled<1, 0, 3, 2>(t180);
        const Q t205 = c[9] * t204;
        const Q t206 = t203 + t205;
        const Q t207 = Q(-c[8], c[8], -c[8], c[8]) * t204;
        const Q t208 = Q(c[9], -c[9], c[9], -c[9]) * t202;
        const Q t209 = t207 + t208;
        const Q t210 = c[10] * t182;
        const Q t211 = c[11] * t181;
        const Q t212 = t210 - t211;
        const Q t213 = c[11] * t182;
        const Q t214 = c[10] * t181;
        const Q t215 = t213 + t214;
        const Q t216 = shuffled<1, 0, 3, 2>(t176);
        const Q t217 = Q(c[13], -c[13], c[13], -c[13]) * t216;
        // spectrum block of 2
        const Q t218 = t187 + t217;
        const Q t219 = t187 - t217;
        // complex block of 2
        const Q t220 = t201 - t209;
        const Q t221 = flipped<0, 1, 0, 1>(t206);
        const Q t222 = t198 + t221;
        const Q t223 = t201 + t209;
        const Q t224 = t198 - t221;
        // complex block of 2
        const Q t225 = t215 + t195;
        const Q t226 = flipped<1, 0, 1, 0>(t192);
        const Q t227 = t212 + t226;
        const Q t228 = t195 - t215;
        const Q t229 = t212 - t226;
        // spectrum block of 5, multiplier 2
        const Q t230 = t222 + t227;
        const Q t231 = t230 + t218;
        const Q t232 = c[1] * t222;
        const Q t233 = c[0] * t227;
        const Q t234 = t232 - t233;
        const Q t235 = t234 + t218;
        const Q t236 = c[3] * t220;
        const Q t237 = c[2] * t225;
        const Q t238 = t236 - t237;
        const Q t239 = t235 - t238;
        const Q t240 = t235 + t238;
        const Q t241 = c[0] * t222;
        const Q t242 = t218 - t241;
        const Q t243 = c[1] * t227;
        const Q t244 = t242 + t243;
        const Q t245 = c[2] * t220;
        const Q t246 = c[3] * t225;
        const Q t247 = t245 + t246;
        const Q t248 = t244 - t247;
        const Q t249 = t244 + t247;
        // spectrum block of 5, multiplier 2
        const Q t250 = t224 + t229;
        const Q t251 = t250 + t219;
        const Q t252 = c[1] * t224;
        const Q t253 = c[0] * t229;
        const Q t254 = t252 - t253;
        const Q t255 = t254 + t219;
        const Q t256 = c[3] * t223;
        const Q t257 = c[2] * t228;
        const Q t258 = t256 + t257;
        const Q t259 = t255 - t258;
        const Q t260 = t255 + t258;
        const Q t261 = c[0] * t224;
        const Q t262 = t219 - t261;
        const Q t263 = c[1] * t229;
        const Q t264 = t262 + t263;
        const Q t265 = c[2] * t223;
        const Q t266 = c[3] * t228;
        const Q t267 = t265 - t266;
        const Q t268 = t264 - t267;
        const Q t269 = t264 + t267;
        const P x9 = io.pair(9);
        const P x4 = io.pair(4);
        // real block of 5, multiplier 2
        const P t270 = x9 + x4;
        const P t271 = x9 - x4;
        const P x34 = io.pair(34);
        const P x14 = io.pair(14);
        const P t272 = x34 + x14;
        const P t273 = x34 - x14;
        const P t274 = t270 + t272;
        const P x49 = io.pair(49);
        const P t275 = t274 + x49;
        const P t276 = c[0] * t270;
        const P t277 = x49 - t276;
        const P t278 = c[1] * t272;
        const P t279 = t277 + t278;
        const P t280 = c[2] * t271;
        const P t281 = c[3] * t273;
        const P t282 = t280 + t281;
        const P t283 = c[1] * t270;
        const P t284 = c[0] * t272;
        const P t285 = t283 - t284;
        const P t286 = t285 + x49;
        const P t287 = c[3] * t271;
        const P t288 = c[2] * t273;
        const P t289 = t287 - t288;
        const P x24 = io.pair(24);
        const P x29 = io.pair(29);
        // real block of 5, multiplier 2
        const P t290 = x24 + x29;
        const P t291 = x24 - x29;
        const P x54 = io.pair(54);
        const P x19 = io.pair(19);
        const P t292 = x54 + x19;
        const P t293 = x54 - x19;
        const P t294 = t290 + t292;
        const P x39 = io.pair(39);
        const P t295 = t294 + x39;
        const P t296 = c[0] * t290;
        const P t297 = x39 - t296;
        const P t298 = c[1] * t292;
        const P t299 = t297 + t298;
        const P t300 = c[2] * t291;
        const P t301 = c[3] * t293;
        const P t302 = t300 + t301;
        const P t303 = c[1] * t290;
        const P t304 = c[0] * t292;
        const P t305 = t303 - t304;
        const P t306 = t305 + x39;
        const P t307 = c[3] * t291;
        const P t308 = c[2] * t293;
        const P t309 = t307 - t308;
        // real block of 2
        const P t310 = t275 + t295;
        const P t311 = t275 - t295;
        // complex block of 2
        const P t312 = t279 + t299;
        const P t313 = t282 + t302;
        const P t314 = t279 - t299;
        const P t315 = t302 - t282;
        // complex block of 2
        const P t316 = t286 + t306;
        const P t317 = t289 + t309;
        const P t318 = t286 - t306;
        const P t319 = t289 - t309;
        const P x44 = io.pair(44);
        // complex block of 11, multiplier 5
        const P t320 = x44 + t310;
        const P t321 = c[12] * t310;
        const P t322 = x44 - t321;
        const Q t323 = joined(t319, t318);
        const Q t324 = shuffled<1, 0, 3, 2>(t323);
        const Q t325 = Q(c[5], c[5], -c[5], c[5]) * t324;
        const Q t326 = shuffled<2, 3, 0, 1>(t324);
        const Q t327 = Q(c[4], c[4], c[4], -c[4]) * t326;
        const Q t328 = t325 + t327;
        const Q t329 = joined(t313, t313);
        const Q t330 = Q(c[6], c[6], c[7], c[7]) * t329;
        const Q t331 = joined(t312, t312);
        const Q t332 = Q(-c[7], -c[7], c[6], c[6]) * t331;
        const Q t333 = t330 + t332;
        const Q t334 = joined(t315, t315);
        const Q t335 = shuffled<1, 0, 3, 2>(t334);
        const Q t336 = Q(c[9], c[9], -c[8], c[8]) * t335;
        const Q t337 = joined(t314, t314);
        const Q t338 = shuffled<1, 0, 3, 2>(t337);
        const Q t339 = Q(c[8], c[8], c[9], -c[9]) * t338;
        const Q t340 = t336 + t339;
        const Q t341 = joined(t317, t317);
        const Q t342 = Q(c[10], c[10], c[11], c[11]) * t341;
        const Q t343 = joined(t316, t316);
        const Q t344 = Q(-c[11], -c[11], c[10], c[10]) * t343;
        const Q t345 = t342 + t344;
        const P t346 = shuffled<1, 0>(t311);
        const P t347 = P(c[13], -c[13]) * t346;
        // spectrum block of 2
        const P t348 = t322 + t347;
        const P t349 = t322 - t347;
        const P t350 = part<1>(t333);
        const P t351 = part<1>(t340);
        // complex block of 2
        const P t352 = t350 - t351;
        const P t353 = part<0>(t333);
        const P t354 = part<0>(t340);
        const P t355 = flipped<0, 1>(t354);
        const P t356 = t353 + t355;
        const P t357 = t350 + t351;
        const P t358 = t353 - t355;
        const P t359 = part<1>(t345);
        const P t360 = part<1>(t328);
        // complex block of 2
        const P t361 = t359 + t360;
        const P t362 = part<0>(t345);
        const P t363 = part<0>(t328);
        const P t364 = flipped<1, 0>(t363);
        const P t365 = t362 + t364;
        const P t366 = t360 - t359;
        const P t367 = t362 - t364;
        // spectrum block of 5, multiplier 2
        const P t368 = t356 + t365;
        const P t369 = t368 + t348;
        const P t370 = c[1] * t356;
        const P t371 = c[0] * t365;
        const P t372 = t370 - t371;
        const P t373 = t372 + t348;
        const P t374 = c[3] * t352;
        const P t375 = c[2] * t361;
        const P t376 = t374 - t375;
        const P t377 = t373 - t376;
        const P t378 = t373 + t376;
        const P t379 = c[0] * t356;
        const P t380 = t348 - t379;
        const P t381 = c[1] * t365;
        const P t382 = t380 + t381;
        const P t383 = c[2] * t352;
        const P t384 = c[3] * t361;
        const P t385 = t383 + t384;
        const P t386 = t382 - t385;
        const P t387 = t382 + t385;
        // spectrum block of 5, multiplier 2
        const P t388 = t358 + t367;
        const P t389 = t388 + t349;
        const P t390 = c[1] * t358;
        const P t391 = c[0] * t367;
        const P t392 = t390 - t391;
        const P t393 = t392 + t349;
        const P t394 = c[3] * t357;
        const P t395 = c[2] * t366;
        const P t396 = t394 + t395;
        const P t397 = t393 - t396;
        const P t398 = t393 + t396;
        const P t399 = c[0] * t358;
        const P t400 = t349 - t399;
        const P t401 = c[1] * t367;
        const P t402 = t400 + t401;
        const P t403 = c[2] * t357;
        const P t404 = c[3] * t366;
        const P t405 = t403 - t404;
        const P t406 = t402 - t405;
        const P t407 = t402 + t405;
        const Q t408 = shuffled<2, 3, 6, 7>(t50, t96);
        const Q t409 = joined(t320, t369);
        // complex block of 5
        const Q t410 = t408 + t409;
        const Q t411 = t408 - t409;
        const Q t412 = shuffled<2, 3, 6, 7>(t185, t231);
        const Q t413 = shuffled<0, 1, 4, 5>(t185, t231);
        const Q t414 = t412 + t413;
        const Q t415 = t412 - t413;
        const Q t416 = t410 + t414;
        const Q t417 = shuffled<0, 1, 4, 5>(t50, t96);
        const Q t418 = t416 + t417;
        io.pairs(0, 5, t418);
        const Q t419 = c[1] * t410;
        const Q t420 = c[0] * t414;
        const Q t421 = t419 - t420;
        const Q t422 = t421 + t417;
        const Q t423 = c[3] * t411;
        const Q t424 = c[2] * t415;
        const Q t425 = t423 - t424;
        const Q t426 = shuffled<1, 0, 3, 2>(t425);
        const Q t427 = flipped<0, 1, 0, 1>(t426);
        const Q t428 = t422 + t427;
        io.pairs(11, 16, t428);
        const Q t429 = t422 - t427;
        io.pairs(44, 49, t429);
        const Q t430 = c[0] * t410;
        const Q t431 = t417 - t430;
        const Q t432 = c[1] * t414;
        const Q t433 = t431 + t432;
        const Q t434 = c[2] * t411;
        const Q t435 = c[3] * t415;
        const Q t436 = t434 + t435;
        const Q t437 = shuffled<1, 0, 3, 2>(t436);
        const Q t438 = flipped<0, 1, 0, 1>(t437);
        const Q t439 = t433 + t438;
        io.pairs(22, 27, t439);
        const Q t440 = t433 - t438;
        io.pairs(33, 38, t440);
        const Q t441 = shuffled<2, 3, 6, 7>(t125, t113);
        const Q t442 = joined(t398, t386);
        // complex block of 5
        const Q t443 = t441 + t442;
        const Q t444 = t441 - t442;
        const Q t445 = shuffled<2, 3, 6, 7>(t260, t248);
        const Q t446 = shuffled<0, 1, 4, 5>(t260, t248);
        const Q t447 = t445 + t446;
        const Q t448 = t445 - t446;
        const Q t449 = t443 + t447;
        const Q t450 = shuffled<0, 1, 4, 5>(t125, t113);
        const Q t451 = t449 + t450;
        io.pairs(10, 15, t451);
        const Q t452 = c[1] * t443;
        const Q t453 = c[0] * t447;
        const Q t454 = t452 - t453;
        const Q t455 = t454 + t450;
        const Q t456 = c[3] * t444;
        const Q t457 = c[2] * t448;
        const Q t458 = t456 - t457;
        const Q t459 = shuffled<1, 0, 3, 2>(t458);
        const Q t460 = flipped<0, 1, 0, 1>(t459);
        const Q t461 = t455 + t460;
        io.pairs(21, 26, t461);
        const Q t462 = t455 - t460;
        io.pairs(54, 4, t462);
        const Q t463 = c[0] * t443;
        const Q t464 = t450 - t463;
        const Q t465 = c[1] * t447;
        const Q t466 = t464 + t465;
        const Q t467 = c[2] * t444;
        const Q t468 = c[3] * t448;
        const Q t469 = t467 + t468;
        const Q t470 = shuffled<1, 0, 3, 2>(t469);
        const Q t471 = flipped<0, 1, 0, 1>(t470);
        const Q t472 = t466 + t471;
        io.pairs(32, 37, t472);
        const Q t473 = t466 - t471;
        io.pairs(43, 48, t473);
        const Q t474 = shuffled<2, 3, 6, 7>(t114, t104);
        const Q t475 = joined(t387, t377);
        // complex block of 5
        const Q t476 = t474 + t475;
        const Q t477 = t474 - t475;
        const Q t478 = shuffled<2, 3, 6, 7>(t249, t239);
        const Q t479 = shuffled<0, 1, 4, 5>(t249, t239);
        const Q t480 = t478 + t479;
        const Q t481 = t478 - t479;
        const Q t482 = t476 + t480;
        const Q t483 = shuffled<0, 1, 4, 5>(t114, t104);
        const Q t484 = t482 + t483;
        io.pairs(20, 25, t484);
        const Q t485 = c[1] * t476;
        const Q t486 = c[0] * t480;
        const Q t487 = t485 - t486;
        const Q t488 = t487 + t483;
        const Q t489 = c[3] * t477;
        const Q t490 = c[2] * t481;
        const Q t491 = t489 - t490;
        const Q t492 = shuffled<1, 0, 3, 2>(t491);
        const Q t493 = flipped<0, 1, 0, 1>(t492);
        const Q t494 = t488 + t493;
        io.pairs(31, 36, t494);
        const Q t495 = t488 - t493;
        io.pairs(9, 14, t495);
        const Q t496 = c[0] * t476;
        const Q t497 = t483 - t496;
        const Q t498 = c[1] * t480;
        const Q t499 = t497 + t498;
        const Q t500 = c[2] * t477;
        const Q t501 = c[3] * t481;
        const Q t502 = t500 + t501;
        const Q t503 = shuffled<1, 0, 3, 2>(t502);
        const Q t504 = flipped<0, 1, 0, 1>(t503);
        const Q t505 = t499 + t504;
        io.pairs(42, 47, t505);
        const Q t506 = t499 - t504;
        io.pairs(53, 3, t506);
        const Q t507 = shuffled<2, 3, 6, 7>(t124, t134);
        const Q t508 = joined(t397, t407);
        // complex block of 5
        const Q t509 = t507 + t508;
        const Q t510 = t507 - t508;
        const Q t511 = shuffled<2, 3, 6, 7>(t259, t269);
        const Q t512 = shuffled<0, 1, 4, 5>(t259, t269);
        const Q t513 = t511 + t512;
        const Q t514 = t511 - t512;
        const Q t515 = t509 + t513;
        const Q t516 = shuffled<0, 1, 4, 5>(t124, t134);
        const Q t517 = t515 + t516;
        io.pairs(30, 35, t517);
        const Q t518 = c[1] * t509;
        const Q t519 = c[0] * t513;
        const Q t520 = t518 - t519;
        const Q t521 = t520 + t516;
        const Q t522 = c[3] * t510;
        const Q t523 = c[2] * t514;
        const Q t524 = t522 - t523;
        const Q t525 = shuffled<1, 0, 3, 2>(t524);
        const Q t526 = flipped<0, 1, 0, 1>(t525);
        const Q t527 = t521 + t526;
        io.pairs(41, 46, t527);
        const Q t528 = t521 - t526;
        io.pairs(19, 24, t528);
        const Q t529 = c[0] * t509;
        const Q t530 = t516 - t529;
        const Q t531 = c[1] * t513;
        const Q t532 = t530 + t531;
        const Q t533 = c[2] * t510;
        const Q t534 = c[3] * t514;
        const Q t535 = t533 + t534;
        const Q t536 = shuffled<1, 0, 3, 2>(t535);
        const Q t537 = flipped<0, 1, 0, 1>(t536);
        const Q t538 = t532 + t537;
        io.pairs(52, 2, t538);
        const Q t539 = t532 - t537;
        io.pairs(8, 13, t539);
        const Q t540 = shuffled<2, 3, 6, 7>(t133, t105);
        const Q t541 = joined(t406, t378);
        // complex block of 5
        const Q t542 = t540 + t541;
        const Q t543 = t540 - t541;
        const Q t544 = shuffled<2, 3, 6, 7>(t268, t240);
        const Q t545 = shuffled<0, 1, 4, 5>(t268, t240);
        const Q t546 = t544 + t545;
        const Q t547 = t544 - t545;
        const Q t548 = t542 + t546;
        const Q t549 = shuffled<0, 1, 4, 5>(t133, t105);
        const Q t550 = t548 + t549;
        io.pairs(40, 45, t550);
        const Q t551 = c[1] * t542;
        const Q t552 = c[0] * t546;
        const Q t553 = t551 - t552;
        const Q t554 = t553 + t549;
        const Q t555 = c[3] * t543;
        const Q t556 = c[2] * t547;
        const Q t557 = t555 - t556;
        const Q t558 = shuffled<1, 0, 3, 2>(t557);
        const Q t559 = flipped<0, 1, 0, 1>(t558);
        const Q t560 = t554 + t559;
        io.pairs(51, 1, t560);
        const Q t561 = t554 - t559;
        io.pairs(29, 34, t561);
        const Q t562 = c[0] * t542;
        const Q t563 = t549 - t562;
        const Q t564 = c[1] * t546;
        const Q t565 = t563 + t564;
        const Q t566 = c[2] * t543;
        const Q t567 = c[3] * t547;
        const Q t568 = t566 + t567;
        const Q t569 = shuffled<1, 0, 3, 2>(t568);
        const Q t570 = flipped<0, 1, 0, 1>(t569);
        const Q t571 = t565 + t570;
        io.pairs(7, 12, t571);
        const Q t572 = t565 - t570;
        io.pairs(18, 23, t572);
        const P t573 = part<1>(t116);
        // complex block of 5
        const P t574 = t573 + t389;
        const P t575 = t573 - t389;
        const P t576 = part<1>(t251);
        const P t577 = part<0>(t251);
        const P t578 = t576 + t577;
        const P t579 = t576 - t577;
        const P t580 = t574 + t578;
        const P t581 = part<0>(t116);
        const P t582 = t580 + t581;
        io.pair(50, t582);
        const P t583 = c[1] * t574;
        const P t584 = c[0] * t578;
        const P t585 = t583 - t584;
        const P t586 = t585 + t581;
        const P t587 = c[3] * t575;
        const P t588 = c[2] * t579;
        const P t589 = t587 - t588;
        const P t590 = shuffled<1, 0>(t589);
        const P t591 = flipped<0, 1>(t590);
        const P t592 = t586 + t591;
        io.pair(6, t592);
        const P t593 = t586 - t591;
        io.pair(39, t593);
        const P t594 = c[0] * t574;
        const P t595 = t581 - t594;
        const P t596 = c[1] * t578;
        const P t597 = t595 + t596;
        const P t598 = c[2] * t575;
        const P t599 = c[3] * t579;
        const P t600 = t598 + t599;
        const P t601 = shuffled<1, 0>(t600);
        const P t602 = flipped<0, 1>(t601);
        const P t603 = t597 + t602;
        io.pair(17, t603);
        const P t604 = t597 - t602;
        io.pair(28, t604);
    }
};

}  // namespace zulg
