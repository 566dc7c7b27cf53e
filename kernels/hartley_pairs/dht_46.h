// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 46.
// Hartley transform of 46 points, form I; two lanes to a register.
// 189 sums, 141 differences, 242 products of registers, which do the 1188 steps of the graph, those with
// `scale` included; 63 shuffles, 16 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<46> {
    static constexpr int steps = 1188;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        0.8412535328311812,  // c[0]: cos 2 pi 1/11
        0.41541501300188644,  // c[1]: cos 2 pi 9/11
        0.14231483827328514,  // c[2]: -cos 2 pi 3/11
        0.6548607339452851,  // c[3]: -cos 2 pi 4/11
        0.9594929736144974,  // c[4]: -cos 2 pi 6/11
        0.9096319953545183,  // c[5]: -sin 2 pi 9/11
        0.28173255684142967,  // c[6]: -sin 2 pi 6/11
        0.5406408174555976,  // c[7]: sin 2 pi 1/11
        0.9898214418809327,  // c[8]: sin 2 pi 3/11
        0.7557495743542583,  // c[9]: sin 2 pi 4/11
        0.17418154463549565,  // c[10]: P[1] of 23
        0.39967916400094217,  // c[11]: -Q[1] of 23
        0.4130101145562366,  // c[12]: P[2] of 23
        0.1396613400420585,  // c[13]: Q[2] of 23
        0.2936565344532715,  // c[14]: -P[3] of 23
        0.3222553093449257,  // c[15]: -Q[3] of 23
        0.42985679697172136,  // c[16]: -Q[4] of 23
        0.07284077652875139,  // c[17]: -P[4] of 23
        0.4166015292602189,  // c[18]: P[5] of 23
        0.12855275355334153,  // c[19]: -Q[5] of 23
        0.3397700700904962,  // c[20]: -Q[6] of 23
        0.2732012886111602,  // c[21]: -P[6] of 23
        0.3941449686576057,  // c[22]: Q[7] of 23
        0.1863662746045921,  // c[23]: -P[7] of 23
        0.4322477411542684,  // c[24]: P[8] of 23
        0.05696081894716527,  // c[25]: Q[8] of 23
        0.15475065017493012,  // c[26]: Q[9] of 23
        0.4075964682115579,  // c[27]: P[9] of 23
        0.4006581594304406,  // c[28]: P[10] of 23
        0.1719176660785936,  // c[29]: Q[10] of 23
        0.045454545454545456,  // c[30]: 1/22
        0.21799234196875997,  // c[31]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x45_44 = io.in(45, 44);
        // input stage
        const P t0 = x1_2 + x45_44;
        const P t1 = x1_2 - x45_44;
        const P x3_4 = io.in(3, 4);
        const P x43_42 = io.in(43, 42);
        const P t2 = x3_4 + x43_42;
        const P t3 = x3_4 - x43_42;
        const P x5_6 = io.in(5, 6);
        const P x41_40 = io.in(41, 40);
        const P t4 = x5_6 + x41_40;
        const P t5 = x5_6 - x41_40;
        const P x7_8 = io.in(7, 8);
        const P x39_38 = io.in(39, 38);
        const P t6 = x7_8 + x39_38;
        const P t7 = x7_8 - x39_38;
        const P x9_10 = io.in(9, 10);
        const P x37_36 = io.in(37, 36);
        const P t8 = x9_10 + x37_36;
        const P t9 = x9_10 - x37_36;
        const P x11_12 = io.in(11, 12);
        const P x35_34 = io.in(35, 34);
        const P t10 = x11_12 + x35_34;
        const P t11 = x11_12 - x35_34;
        const P x13_14 = io.in(13, 14);
        const P x33_32 = io.in(33, 32);
        const P t12 = x13_14 + x33_32;
        const P t13 = x13_14 - x33_32;
        const P x15_16 = io.in(15, 16);
        const P x31_30 = io.in(31, 30);
        const P t14 = x15_16 + x31_30;
        const P t15 = x15_16 - x31_30;
        const P x17_18 = io.in(17, 18);
        const P x29_28 = io.in(29, 28);
        const P t16 = x17_18 + x29_28;
        const P t17 = x17_18 - x29_28;
        const P x19_20 = io.in(19, 20);
        const P x27_26 = io.in(27, 26);
        const P t18 = x19_20 + x27_26;
        const P t19 = x19_20 - x27_26;
        const P x21_22 = io.in(21, 22);
        const P x25_24 = io.in(25, 24);
        const P t20 = x21_22 + x25_24;
        const P t21 = x21_22 - x25_24;
        const P t22 = shuffled<1, 2>(t8, t12);
        const P t23 = shuffled<1, 2>(t16, t4);
        // real block of 11
        const P t24 = t22 + t23;
        const P t25 = t22 - t23;
        const P t26 = shuffled<1, 2>(t20, t0);
        const P t27 = shuffled<1, 2>(t2, t18);
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P t30 = shuffled<1, 2>(t18, t2);
        const P t31 = shuffled<1, 2>(t12, t8);
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P t34 = shuffled<1, 2>(t6, t14);
        const P t35 = shuffled<1, 0>(t10);
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P t38 = shuffled<1, 2>(t14, t6);
        const P t39 = shuffled<1, 2>(t4, t16);
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = t24 + t28;
        const P t43 = t42 + t32;
        const P t44 = t43 + t36;
        const P t45 = t44 + t40;
        const P t46 = shuffled<1, 2>(t0, t20);
        const P t47 = t45 + t46;
        const P t48 = c[0] * t24;
        const P t49 = c[1] * t28;
        const P t50 = t48 + t49;
        const P t51 = c[2] * t32;
        const P t52 = t50 - t51;
        const P t53 = c[3] * t36;
        const P t54 = t52 - t53;
        const P t55 = c[4] * t40;
        const P t56 = t54 - t55;
        const P t57 = t56 + t46;
        const P t58 = c[5] * t29;
        const P t59 = c[6] * t41;
        const P t60 = t58 + t59;
        const P t61 = c[7] * t25;
        const P t62 = t60 - t61;
        const P t63 = c[8] * t33;
        const P t64 = t62 - t63;
        const P t65 = c[9] * t37;
        const P t66 = t64 - t65;
        const P t67 = c[1] * t24;
        const P t68 = c[3] * t28;
        const P t69 = t67 - t68;
        const P t70 = c[4] * t32;
        const P t71 = t69 - t70;
        const P t72 = c[2] * t36;
        const P t73 = t71 - t72;
        const P t74 = c[0] * t40;
        const P t75 = t73 + t74;
        const P t76 = t75 + t46;
        const P t77 = c[9] * t29;
        const P t78 = c[6] * t33;
        const P t79 = t77 + t78;
        const P t80 = c[8] * t37;
        const P t81 = t79 + t80;
        const P t82 = c[5] * t25;
        const P t83 = t81 - t82;
        const P t84 = c[7] * t41;
        const P t85 = t83 - t84;
        const P t86 = c[2] * t24;
        const P t87 = t46 - t86;
        const P t88 = c[4] * t28;
        const P t89 = t87 - t88;
        const P t90 = c[1] * t32;
        const P t91 = t89 + t90;
        const P t92 = c[0] * t36;
        const P t93 = t91 + t92;
        const P t94 = c[3] * t40;
        const P t95 = t93 - t94;
        const P t96 = c[5] * t33;
        const P t97 = c[9] * t41;
        const P t98 = t96 + t97;
        const P t99 = c[8] * t25;
        const P t100 = t98 - t99;
        const P t101 = c[6] * t29;
        const P t102 = t100 - t101;
        const P t103 = c[7] * t37;
        const P t104 = t102 - t103;
        const P t105 = c[3] * t24;
        const P t106 = t46 - t105;
        const P t107 = c[2] * t28;
        const P t108 = t106 - t107;
        const P t109 = c[0] * t32;
        const P t110 = t108 + t109;
        const P t111 = c[4] * t36;
        const P t112 = t110 - t111;
        const P t113 = c[1] * t40;
        const P t114 = t112 + t113;
        const P t115 = c[9] * t25;
        const P t116 = c[8] * t29;
        const P t117 = t115 + t116;
        const P t118 = c[7] * t33;
        const P t119 = t117 + t118;
        const P t120 = c[6] * t37;
        const P t121 = t119 + t120;
        const P t122 = c[5] * t41;
        const P t123 = t121 + t122;
        const P t124 = c[4] * t24;
        const P t125 = t46 - t124;
        const P t126 = c[0] * t28;
        const P t127 = t125 + t126;
        const P t128 = c[3] * t32;
        const P t129 = t127 - t128;
        const P t130 = c[1] * t36;
        const P t131 = t129 + t130;
        const P t132 = c[2] * t40;
        const P t133 = t131 - t132;
        const P t134 = c[5] * t37;
        const P t135 = c[8] * t41;
        const P t136 = t134 + t135;
        const P t137 = c[6] * t25;
        const P t138 = t136 - t137;
        const P t139 = c[7] * t29;
        const P t140 = t138 - t139;
        const P t141 = c[9] * t33;
        const P t142 = t140 - t141;
        const P t143 = shuffled<1, 2>(t17, t13);
        const P t144 = shuffled<1, 2>(t9, t5);
        // real block of 11
        const P t145 = t143 - t144;
        const P t146 = t143 + t144;
        const P t147 = shuffled<1, 2>(t3, t1);
        const P t148 = shuffled<1, 2>(t21, t19);
        const P t149 = t147 - t148;
        const P t150 = t147 + t148;
        const P t151 = shuffled<1, 2>(t19, t3);
        const P t152 = shuffled<1, 2>(t13, t9);
        const P t153 = t151 + t152;
        const P t154 = shuffled<0, 3>(t152, t151);
        const P t155 = shuffled<0, 3>(t151, t152);
        const P t156 = t154 - t155;
        const P t157 = shuffled<1, 2>(t7, t15);
        const P t158 = shuffled<1, 0>(t11);
        const P t159 = t157 + t158;
        const P t160 = shuffled<0, 3>(t157, t158);
        const P t161 = shuffled<0, 3>(t158, t157);
        const P t162 = t160 - t161;
        const P t163 = shuffled<1, 2>(t15, t7);
        const P t164 = shuffled<1, 2>(t5, t17);
        const P t165 = t163 + t164;
        const P t166 = shuffled<0, 3>(t163, t164);
        const P t167 = shuffled<0, 3>(t164, t163);
        const P t168 = t166 - t167;
        const P t169 = t145 + t149;
        const P t170 = flipped<1, 0>(t153);
        const P t171 = t169 + t170;
        const P t172 = flipped<0, 1>(t159);
        const P t173 = t171 + t172;
        const P t174 = flipped<0, 1>(t165);
        const P t175 = t173 + t174;
        const P t176 = shuffled<1, 2>(t1, t21);
        const P t177 = flipped<0, 1>(t176);
        const P t178 = t175 + t177;
        const P t179 = c[0] * t145;
        const P t180 = c[1] * t149;
        const P t181 = t179 + t180;
        const P t182 = P(c[2], -c[2]) * t153;
        const P t183 = t181 + t182;
        const P t184 = P(-c[3], c[3]) * t159;
        const P t185 = t183 + t184;
        const P t186 = P(-c[4], c[4]) * t165;
        const P t187 = t185 + t186;
        const P t188 = t187 + t177;
        const P t189 = c[7] * t146;
        const P t190 = c[5] * t150;
        const P t191 = shuffled<0, 3>(t189, t190);
        const P t192 = c[6] * t168;
        const P t193 = t191 + t192;
        const P t194 = shuffled<0, 3>(t190, t189);
        const P t195 = t193 - t194;
        const P t196 = c[8] * t156;
        const P t197 = t195 - t196;
        const P t198 = c[9] * t162;
        const P t199 = t197 - t198;
        const P t200 = c[1] * t145;
        const P t201 = c[3] * t149;
        const P t202 = t200 - t201;
        const P t203 = P(c[4], -c[4]) * t153;
        const P t204 = t202 + t203;
        const P t205 = P(-c[2], c[2]) * t159;
        const P t206 = t204 + t205;
        const P t207 = P(c[0], -c[0]) * t165;
        const P t208 = t206 + t207;
        const P t209 = t208 + t177;
        const P t210 = c[5] * t146;
        const P t211 = c[9] * t150;
        const P t212 = shuffled<0, 3>(t210, t211);
        const P t213 = c[6] * t156;
        const P t214 = t212 + t213;
        const P t215 = c[8] * t162;
        const P t216 = t214 + t215;
        const P t217 = shuffled<0, 3>(t211, t210);
        const P t218 = t216 - t217;
        const P t219 = c[7] * t168;
        const P t220 = t218 - t219;
        const P t221 = P(-c[2], c[2]) * t145;
        const P t222 = t176 + t221;
        const P t223 = P(-c[4], c[4]) * t149;
        const P t224 = t222 + t223;
        const P t225 = P(-c[1], c[1]) * t153;
        const P t226 = flipped<0, 1>(t224);
        const P t227 = t225 + t226;
        const P t228 = P(c[0], -c[0]) * t159;
        const P t229 = t227 + t228;
        const P t230 = P(-c[3], c[3]) * t165;
        const P t231 = t229 + t230;
        const P t232 = c[8] * t146;
        const P t233 = c[5] * t156;
        const P t234 = shuffled<0, 3>(t232, t233);
        const P t235 = c[6] * t150;
        const P t236 = c[9] * t168;
        const P t237 = shuffled<0, 3>(t235, t236);
        const P t238 = t234 + t237;
        const P t239 = shuffled<0, 3>(t233, t232);
        const P t240 = flipped<0, 1>(t239);
        const P t241 = t238 + t240;
        const P t242 = shuffled<0, 3>(t236, t235);
        const P t243 = flipped<0, 1>(t242);
        const P t244 = t241 + t243;
        const P t245 = c[7] * t162;
        const P t246 = t244 - t245;
        const P t247 = P(-c[3], c[3]) * t145;
        const P t248 = t176 + t247;
        const P t249 = P(-c[2], c[2]) * t149;
        const P t250 = t248 + t249;
        const P t251 = P(-c[0], c[0]) * t153;
        const P t252 = flipped<0, 1>(t250);
        const P t253 = t251 + t252;
        const P t254 = P(-c[4], c[4]) * t159;
        const P t255 = t253 + t254;
        const P t256 = P(c[1], -c[1]) * t165;
        const P t257 = t255 + t256;
        const P t258 = c[9] * t146;
        const P t259 = c[8] * t150;
        const P t260 = t258 + t259;
        const P t261 = P(-c[7], c[7]) * t156;
        const P t262 = t260 + t261;
        const P t263 = P(-c[6], c[6]) * t162;
        const P t264 = t262 + t263;
        const P t265 = P(-c[5], c[5]) * t168;
        const P t266 = t264 + t265;
        const P t267 = P(-c[4], c[4]) * t145;
        const P t268 = t176 + t267;
        const P t269 = c[0] * t149;
        const P t270 = flipped<0, 1>(t268);
        const P t271 = t269 + t270;
        const P t272 = P(c[3], -c[3]) * t153;
        const P t273 = t271 + t272;
        const P t274 = P(c[1], -c[1]) * t159;
        const P t275 = t273 + t274;
        const P t276 = P(-c[2], c[2]) * t165;
        const P t277 = t275 + t276;
        const P t278 = c[6] * t146;
        const P t279 = c[5] * t162;
        const P t280 = shuffled<0, 3>(t278, t279);
        const P t281 = c[7] * t150;
        const P t282 = c[8] * t168;
        const P t283 = shuffled<0, 3>(t281, t282);
        const P t284 = t280 + t283;
        const P t285 = shuffled<0, 3>(t279, t278);
        const P t286 = flipped<0, 1>(t285);
        const P t287 = t284 + t286;
        const P t288 = shuffled<0, 3>(t282, t281);
        const P t289 = flipped<0, 1>(t288);
        const P t290 = t287 + t289;
        const P t291 = c[9] * t156;
        const P t292 = t290 - t291;
        const P x0_23 = io.in(0, 23);
        // spectrum block of 23, multiplier 2
        const P t293 = c[30] * t47;
        const P t294 = x0_23 - t293;
        const P t295 = c[10] * t292;
        const P t296 = c[11] * t277;
        const P t297 = t295 - t296;
        const P t298 = c[11] * t292;
        const P t299 = c[10] * t277;
        const P t300 = t298 + t299;
        const P t301 = c[12] * t57;
        const P t302 = c[13] * t66;
        const P t303 = t301 - t302;
        const P t304 = c[12] * t66;
        const P t305 = c[13] * t57;
        const P t306 = t304 + t305;
        const P t307 = c[14] * t266;
        const P t308 = P(c[15], -c[15]) * t257;
        const P t309 = t307 + t308;
        const P t310 = c[15] * t266;
        const P t311 = P(-c[14], c[14]) * t257;
        const P t312 = t310 + t311;
        const P t313 = c[16] * t85;
        const P t314 = c[17] * t76;
        const P t315 = t313 - t314;
        const P t316 = c[17] * t85;
        const P t317 = c[16] * t76;
        const P t318 = t316 + t317;
        const P t319 = c[18] * t246;
        const P t320 = c[19] * t231;
        const P t321 = t319 - t320;
        const P t322 = c[19] * t246;
        const P t323 = c[18] * t231;
        const P t324 = t322 + t323;
        const P t325 = c[20] * t104;
        const P t326 = c[21] * t95;
        const P t327 = t325 - t326;
        const P t328 = c[21] * t104;
        const P t329 = c[20] * t95;
        const P t330 = t328 + t329;
        const P t331 = c[22] * t209;
        const P t332 = c[23] * t220;
        const P t333 = t331 - t332;
        const P t334 = c[22] * t220;
        const P t335 = c[23] * t209;
        const P t336 = t334 + t335;
        const P t337 = c[24] * t114;
        const P t338 = c[25] * t123;
        const P t339 = t337 + t338;
        const P t340 = c[25] * t114;
        const P t341 = c[24] * t123;
        const P t342 = t340 - t341;
        const P t343 = c[26] * t188;
        const P t344 = c[27] * t199;
        const P t345 = t343 + t344;
        const P t346 = c[27] * t188;
        const P t347 = c[26] * t199;
        const P t348 = t346 - t347;
        const P t349 = c[28] * t133;
        const P t350 = c[29] * t142;
        const P t351 = t349 - t350;
        const P t352 = c[28] * t142;
        const P t353 = c[29] * t133;
        const P t354 = t352 + t353;
        // spectrum block of 11, multiplier 2
        const P t355 = t303 + t315;
        const P t356 = t355 + t327;
        const P t357 = t356 + t339;
        const P t358 = t357 + t351;
        const P t359 = t358 + t294;
        const P t360 = c[0] * t303;
        const P t361 = c[1] * t315;
        const P t362 = t360 + t361;
        const P t363 = c[2] * t327;
        const P t364 = t362 - t363;
        const P t365 = c[3] * t339;
        const P t366 = t364 - t365;
        const P t367 = c[4] * t351;
        const P t368 = t366 - t367;
        const P t369 = t368 + t294;
        const P t370 = c[7] * t306;
        const P t371 = c[5] * t318;
        const P t372 = t370 - t371;
        const P t373 = c[8] * t330;
        const P t374 = t372 - t373;
        const P t375 = c[9] * t342;
        const P t376 = t374 + t375;
        const P t377 = c[6] * t354;
        const P t378 = t376 + t377;
        const P t379 = t369 - t378;
        const P t380 = t369 + t378;
        const P t381 = c[1] * t303;
        const P t382 = c[3] * t315;
        const P t383 = t381 - t382;
        const P t384 = c[4] * t327;
        const P t385 = t383 - t384;
        const P t386 = c[2] * t339;
        const P t387 = t385 - t386;
        const P t388 = c[0] * t351;
        const P t389 = t387 + t388;
        const P t390 = t389 + t294;
        const P t391 = c[5] * t306;
        const P t392 = c[9] * t318;
        const P t393 = t391 - t392;
        const P t394 = c[6] * t330;
        const P t395 = t393 + t394;
        const P t396 = c[8] * t342;
        const P t397 = t395 - t396;
        const P t398 = c[7] * t354;
        const P t399 = t397 - t398;
        const P t400 = t390 - t399;
        const P t401 = t390 + t399;
        const P t402 = c[2] * t303;
        const P t403 = t294 - t402;
        const P t404 = c[4] * t315;
        const P t405 = t403 - t404;
        const P t406 = c[1] * t327;
        const P t407 = t405 + t406;
        const P t408 = c[0] * t339;
        const P t409 = t407 + t408;
        const P t410 = c[3] * t351;
        const P t411 = t409 - t410;
        const P t412 = c[8] * t306;
        const P t413 = c[6] * t318;
        const P t414 = t412 + t413;
        const P t415 = c[5] * t330;
        const P t416 = t414 + t415;
        const P t417 = c[7] * t342;
        const P t418 = t416 + t417;
        const P t419 = c[9] * t354;
        const P t420 = t418 + t419;
        const P t421 = t411 - t420;
        const P t422 = t411 + t420;
        const P t423 = c[3] * t303;
        const P t424 = t294 - t423;
        const P t425 = c[2] * t315;
        const P t426 = t424 - t425;
        const P t427 = c[0] * t327;
        const P t428 = t426 + t427;
        const P t429 = c[4] * t339;
        const P t430 = t428 - t429;
        const P t431 = c[1] * t351;
        const P t432 = t430 + t431;
        const P t433 = c[9] * t306;
        const P t434 = c[8] * t318;
        const P t435 = t433 + t434;
        const P t436 = c[7] * t330;
        const P t437 = t435 - t436;
        const P t438 = c[6] * t342;
        const P t439 = t437 + t438;
        const P t440 = c[5] * t354;
        const P t441 = t439 - t440;
        const P t442 = t432 - t441;
        const P t443 = t432 + t441;
        const P t444 = c[4] * t303;
        const P t445 = t294 - t444;
        const P t446 = c[0] * t315;
        const P t447 = t445 + t446;
        const P t448 = c[3] * t327;
        const P t449 = t447 - t448;
        const P t450 = c[1] * t339;
        const P t451 = t449 + t450;
        const P t452 = c[2] * t351;
        const P t453 = t451 - t452;
        const P t454 = c[6] * t306;
        const P t455 = c[7] * t318;
        const P t456 = t454 + t455;
        const P t457 = c[9] * t330;
        const P t458 = t456 - t457;
        const P t459 = c[5] * t342;
        const P t460 = t458 - t459;
        const P t461 = c[8] * t354;
        const P t462 = t460 + t461;
        const P t463 = t453 - t462;
        const P t464 = t453 + t462;
        // spectrum block of 11, multiplier 2
        const P t465 = t345 + t333;
        const P t466 = t465 + t321;
        const P t467 = flipped<1, 0>(t309);
        const P t468 = t466 + t467;
        const P t469 = t468 + t297;
        // spectrum block of 23, multiplier 2
        const P t470 = c[31] * t178;
        // spectrum block of 11, multiplier 2
        const P t471 = t469 - t470;
        const P t472 = c[0] * t345;
        const P t473 = c[1] * t333;
        const P t474 = t472 + t473;
        const P t475 = c[2] * t321;
        const P t476 = t474 - t475;
        const P t477 = P(c[3], -c[3]) * t309;
        const P t478 = t476 + t477;
        const P t479 = c[4] * t297;
        const P t480 = t478 - t479;
        const P t481 = t480 - t470;
        const P t482 = c[5] * t336;
        const P t483 = c[7] * t348;
        const P t484 = t482 - t483;
        const P t485 = c[8] * t324;
        const P t486 = t484 - t485;
        const P t487 = P(-c[9], c[9]) * t312;
        const P t488 = t486 + t487;
        const P t489 = c[6] * t300;
        const P t490 = t488 - t489;
        const P t491 = t481 - t490;
        const P t492 = t481 + t490;
        const P t493 = c[1] * t345;
        const P t494 = c[3] * t333;
        const P t495 = t493 - t494;
        const P t496 = c[4] * t321;
        const P t497 = t495 - t496;
        const P t498 = P(c[2], -c[2]) * t309;
        const P t499 = t497 + t498;
        const P t500 = c[0] * t297;
        const P t501 = t499 + t500;
        const P t502 = t501 - t470;
        const P t503 = c[9] * t336;
        const P t504 = c[5] * t348;
        const P t505 = t503 - t504;
        const P t506 = c[6] * t324;
        const P t507 = t505 + t506;
        const P t508 = P(c[8], -c[8]) * t312;
        const P t509 = t507 + t508;
        const P t510 = c[7] * t300;
        const P t511 = t509 + t510;
        const P t512 = t502 - t511;
        const P t513 = t502 + t511;
        const P t514 = c[2] * t345;
        const P t515 = t470 + t514;
        const P t516 = c[4] * t333;
        const P t517 = t515 + t516;
        const P t518 = c[1] * t321;
        const P t519 = t518 - t517;
        const P t520 = P(-c[0], c[0]) * t309;
        const P t521 = t519 + t520;
        const P t522 = c[3] * t297;
        const P t523 = t521 - t522;
        const P t524 = c[8] * t348;
        const P t525 = c[6] * t336;
        const P t526 = t524 + t525;
        const P t527 = c[5] * t324;
        const P t528 = t527 - t526;
        const P t529 = P(-c[7], c[7]) * t312;
        const P t530 = t528 + t529;
        const P t531 = c[9] * t300;
        const P t532 = t530 - t531;
        const P t533 = t523 - t532;
        const P t534 = t523 + t532;
        const P t535 = c[3] * t345;
        const P t536 = t470 + t535;
        const P t537 = c[2] * t333;
        const P t538 = t536 + t537;
        const P t539 = c[0] * t321;
        const P t540 = t539 - t538;
        const P t541 = P(c[4], -c[4]) * t309;
        const P t542 = t540 + t541;
        const P t543 = c[1] * t297;
        const P t544 = t542 + t543;
        const P t545 = c[9] * t348;
        const P t546 = c[8] * t336;
        const P t547 = t545 + t546;
        const P t548 = c[7] * t324;
        const P t549 = t547 + t548;
        const P t550 = c[6] * t312;
        const P t551 = flipped<0, 1>(t549);
        const P t552 = t550 + t551;
        const P t553 = flipped<1, 0>(t552);
        const P t554 = c[5] * t300;
        const P t555 = t553 + t554;
        const P t556 = t544 - t555;
        const P t557 = t544 + t555;
        const P t558 = c[4] * t345;
        const P t559 = t470 + t558;
        const P t560 = c[0] * t333;
        const P t561 = t560 - t559;
        const P t562 = c[3] * t321;
        const P t563 = t561 - t562;
        const P t564 = P(-c[1], c[1]) * t309;
        const P t565 = t563 + t564;
        const P t566 = c[2] * t297;
        const P t567 = t565 - t566;
        const P t568 = c[6] * t348;
        const P t569 = c[7] * t336;
        const P t570 = t568 + t569;
        const P t571 = c[9] * t324;
        const P t572 = t570 + t571;
        const P t573 = flipped<1, 0>(t572);
        const P t574 = c[5] * t312;
        const P t575 = t573 + t574;
        const P t576 = P(-c[8], c[8]) * t300;
        const P t577 = t575 + t576;
        const P t578 = flipped<1, 0>(t577);
        const P t579 = t567 + t578;
        const P t580 = t567 - t578;
        // spectrum block of 2
        const P t581 = t359 + t471;
        const P t582 = t359 - t471;
        // spectrum block of 2
        const P t583 = t400 + t512;
        const P t584 = t400 - t512;
        // spectrum block of 2
        const P t585 = t442 + t556;
        const P t586 = t442 - t556;
        // spectrum block of 2
        const P t587 = t464 + t580;
        const P t588 = t464 - t580;
        // spectrum block of 2
        const P t589 = t422 + t534;
        const P t590 = t422 - t534;
        // spectrum block of 2
        const P t591 = t380 + t492;
        const P t592 = t380 - t492;
        // spectrum block of 2
        const P t593 = t379 + t491;
        const P t594 = t379 - t491;
        // spectrum block of 2
        const P t595 = t421 + t533;
        const P t596 = t421 - t533;
        // spectrum block of 2
        const P t597 = t463 + t579;
        const P t598 = t463 - t579;
        // spectrum block of 2
        const P t599 = t443 + t557;
        const P t600 = t443 - t557;
        // spectrum block of 2
        const P t601 = t401 + t513;
        const P t602 = t401 - t513;
        // spectrum block of 23, multiplier 2
        const P t603 = x0_23 + t47;
        const P t604 = shuffled<0, 2>(t603, t581);
        const P t605 = shuffled<1, 3>(t603, t581);
        // spectrum block of 2
        const P t606 = t604 + t605;
        io.out(0, 44, t606);
        const P t607 = t604 - t605;
        io.out(23, 21, t607);
        const P t608 = shuffled<0, 2>(t601, t587);
        const P t609 = shuffled<1, 3>(t601, t587);
        // spectrum block of 2
        const P t610 = t608 + t609;
        io.out(42, 40, t610);
        const P t611 = t608 - t609;
        io.out(19, 17, t611);
        const P t612 = shuffled<0, 2>(t599, t592);
        const P t613 = shuffled<1, 3>(t599, t592);
        // spectrum block of 2
        const P t614 = t612 + t613;
        io.out(38, 36, t614);
        const P t615 = t612 - t613;
        io.out(15, 13, t615);
        const P t616 = shuffled<0, 2>(t585, t596);
        const P t617 = shuffled<1, 3>(t585, t596);
        // spectrum block of 2
        const P t618 = t616 + t617;
        io.out(34, 32, t618);
        const P t619 = t616 - t617;
        io.out(11, 9, t619);
        const P t620 = shuffled<0, 2>(t597, t593);
        const P t621 = shuffled<1, 3>(t597, t593);
        // spectrum block of 2
        const P t622 = t620 + t621;
        io.out(30, 28, t622);
        const P t623 = t620 - t621;
        io.out(7, 5, t623);
        const P t624 = shuffled<0, 2>(t590, t584);
        const P t625 = shuffled<1, 3>(t590, t584);
        // spectrum block of 2
        const P t626 = t624 + t625;
        io.out(26, 24, t626);
        const P t627 = t624 - t625;
        io.out(3, 1, t627);
        const P t628 = shuffled<0, 2>(t583, t589);
        const P t629 = shuffled<1, 3>(t583, t589);
        // spectrum block of 2
        const P t630 = t628 + t629;
        io.out(22, 20, t630);
        const P t631 = t628 - t629;
        io.out(45, 43, t631);
        const P t632 = shuffled<0, 2>(t594, t598);
        const P t633 = shuffled<1, 3>(t594, t598);
        // spectrum block of 2
        const P t634 = t632 + t633;
        io.out(18, 16, t634);
        const P t635 = t632 - t633;
        io.out(41, 39, t635);
        const P t636 = shuffled<0, 2>(t595, t586);
        const P t637 = shuffled<1, 3>(t595, t586);
        // spectrum block of 2
        const P t638 = t636 + t637;
        io.out(14, 12, t638);
        const P t639 = t636 - t637;
        io.out(37, 35, t639);
        const P t640 = shuffled<0, 2>(t591, t600);
        const P t641 = shuffled<1, 3>(t591, t600);
        // spectrum block of 2
        const P t642 = t640 + t641;
        io.out(10, 8, t642);
        const P t643 = t640 - t641;
        io.out(33, 31, t643);
        const P t644 = shuffled<0, 2>(t588, t602);
        const P t645 = shuffled<1, 3>(t588, t602);
        // spectrum block of 2
        const P t646 = t644 + t645;
        io.out(6, 4, t646);
        const P t647 = t644 - t645;
        io.out(29, 27, t647);
        const V t648 = part<0>(t582);
        const V t649 = part<1>(t582);
        // spectrum block of 2
        const V t650 = t648 + t649;
        io.out(2, t650);
        const V t651 = t648 - t649;
        io.out(25, t651);
    }
};

}  // namespace zulg
