// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 58.
// Forward DFT of 58 real points, prime-factor 2, 29; two lanes to a register.
// 172 sums, 164 differences, 210 products of registers, which do the 1148 steps of the graph, those with
// `scale` included; 58 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<58> {
    static constexpr int steps = 1148;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.21044290248272673,  // c[6]: P[1] of 29
        0.3219828698364479,  // c[7]: -Q[1] of 29
        0.3298297662985413,  // c[8]: P[2] of 29
        0.19791793485411824,  // c[9]: Q[2] of 29
        0.384463442096457,  // c[10]: P[3] of 29
        0.012126226322052493,  // c[11]: Q[3] of 29
        0.3609030660383976,  // c[12]: P[4] of 29
        0.1330720128259635,  // c[13]: -Q[4] of 29
        0.36147698792300353,  // c[14]: -Q[5] of 29
        0.13150502224471186,  // c[15]: -P[5] of 29
        0.38084126020120657,  // c[16]: P[6] of 29
        0.054028864524680344,  // c[17]: -Q[6] of 29
        0.3777140697119294,  // c[18]: P[7] of 29
        0.07274108340629196,  // c[19]: Q[7] of 29
        0.2786653006997481,  // c[20]: P[8] of 29
        0.26515058713755163,  // c[21]: Q[8] of 29
        0.13446199615788765,  // c[22]: Q[9] of 29
        0.3603875070846735,  // c[23]: -P[9] of 29
        0.2987602224736465,  // c[24]: -P[10] of 29
        0.24228395147216553,  // c[25]: -Q[10] of 29
        0.019970959548377194,  // c[26]: P[11] of 29
        0.38413584113980626,  // c[27]: Q[11] of 29
        0.08413784916151361,  // c[28]: P[12] of 29
        0.3753398540149231,  // c[29]: -Q[12] of 29
        0.1800860537573993,  // c[30]: P[13] of 29
        0.3398943908268515,  // c[31]: -Q[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_2 = io.in(0, 2);
        const P x29_31 = io.in(29, 31);
        // real block of 2
        const P t0 = x0_2 + x29_31;
        const P t1 = x0_2 - x29_31;
        const P x4_6 = io.in(4, 6);
        const P x33_35 = io.in(33, 35);
        // real block of 2
        const P t2 = x4_6 + x33_35;
        const P t3 = x4_6 - x33_35;
        const P x8_10 = io.in(8, 10);
        const P x37_39 = io.in(37, 39);
        // real block of 2
        const P t4 = x8_10 + x37_39;
        const P t5 = x8_10 - x37_39;
        const P x12_14 = io.in(12, 14);
        const P x41_43 = io.in(41, 43);
        // real block of 2
        const P t6 = x12_14 + x41_43;
        const P t7 = x12_14 - x41_43;
        const P x16_18 = io.in(16, 18);
        const P x45_47 = io.in(45, 47);
        // real block of 2
        const P t8 = x16_18 + x45_47;
        const P t9 = x16_18 - x45_47;
        const P x20_22 = io.in(20, 22);
        const P x49_51 = io.in(49, 51);
        // real block of 2
        const P t10 = x20_22 + x49_51;
        const P t11 = x20_22 - x49_51;
        const P x24_26 = io.in(24, 26);
        const P x53_55 = io.in(53, 55);
        // real block of 2
        const P t12 = x24_26 + x53_55;
        const P t13 = x24_26 - x53_55;
        const P x28_30 = io.in(28, 30);
        const P x57_1 = io.in(57, 1);
        // real block of 2
        const P t14 = x28_30 + x57_1;
        const P t15 = x28_30 - x57_1;
        const P x32_34 = io.in(32, 34);
        const P x3_5 = io.in(3, 5);
        // real block of 2
        const P t16 = x32_34 + x3_5;
        const P t17 = x32_34 - x3_5;
        const P x36_38 = io.in(36, 38);
        const P x7_9 = io.in(7, 9);
        // real block of 2
        const P t18 = x36_38 + x7_9;
        const P t19 = x36_38 - x7_9;
        const P x40_42 = io.in(40, 42);
        const P x11_13 = io.in(11, 13);
        // real block of 2
        const P t20 = x40_42 + x11_13;
        const P t21 = x40_42 - x11_13;
        const P x44_46 = io.in(44, 46);
        const P x15_17 = io.in(15, 17);
        // real block of 2
        const P t22 = x44_46 + x15_17;
        const P t23 = x44_46 - x15_17;
        const P x48_50 = io.in(48, 50);
        const P x19_21 = io.in(19, 21);
        // real block of 2
        const P t24 = x48_50 + x19_21;
        const P t25 = x48_50 - x19_21;
        const P x52_54 = io.in(52, 54);
        const P x23_25 = io.in(23, 25);
        // real block of 2
        const P t26 = x52_54 + x23_25;
        const P t27 = x52_54 - x23_25;
        const V x56 = io.in(56);
        const V x27 = io.in(27);
        // real block of 2
        const V t28 = x56 + x27;
        const V t29 = x56 - x27;
        const P t30 = shuffled<0, 2>(t16, t17);
        const P t31 = shuffled<0, 2>(t20, t21);
        // real block of 7, multiplier 4
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P t34 = shuffled<1, 3>(t22, t23);
        const P t35 = shuffled<0, 2>(t24, t25);
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P t38 = shuffled<1, 3>(t24, t25);
        const P t39 = shuffled<1, 3>(t6, t7);
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = t32 + t36;
        const P t43 = t42 + t40;
        const P t44 = shuffled<1, 3>(t0, t1);
        const P t45 = t43 + t44;
        const P t46 = c[0] * t32;
        const P t47 = t44 - t46;
        const P t48 = c[1] * t36;
        const P t49 = t47 + t48;
        const P t50 = c[2] * t40;
        const P t51 = t49 - t50;
        const P t52 = c[3] * t33;
        const P t53 = c[4] * t37;
        const P t54 = t52 + t53;
        const P t55 = c[5] * t41;
        const P t56 = t54 - t55;
        const P t57 = c[1] * t32;
        const P t58 = c[2] * t36;
        const P t59 = t57 - t58;
        const P t60 = c[0] * t40;
        const P t61 = t59 - t60;
        const P t62 = t61 + t44;
        const P t63 = c[5] * t37;
        const P t64 = c[3] * t41;
        const P t65 = t63 + t64;
        const P t66 = c[4] * t33;
        const P t67 = t65 - t66;
        const P t68 = c[2] * t32;
        const P t69 = t44 - t68;
        const P t70 = c[0] * t36;
        const P t71 = t69 - t70;
        const P t72 = c[1] * t40;
        const P t73 = t71 + t72;
        const P t74 = c[5] * t33;
        const P t75 = c[3] * t37;
        const P t76 = t74 + t75;
        const P t77 = c[4] * t41;
        const P t78 = t76 + t77;
        const P t79 = shuffled<0, 2>(t18, t19);
        const P t80 = shuffled<0, 2>(t8, t9);
        // real block of 7, multiplier 4
        const P t81 = t79 + t80;
        const P t82 = t79 - t80;
        const P t83 = shuffled<1, 3>(t14, t15);
        const P t84 = shuffled<1, 3>(t26, t27);
        const P t85 = t83 + t84;
        const P t86 = t83 - t84;
        const P t87 = shuffled<0, 2>(t10, t11);
        const P t88 = shuffled<0, 2>(t26, t27);
        const P t89 = t87 + t88;
        const P t90 = t87 - t88;
        const P t91 = t81 + t85;
        const P t92 = t91 + t89;
        const P t93 = shuffled<0, 2>(t12, t13);
        const P t94 = t92 + t93;
        const P t95 = c[0] * t81;
        const P t96 = t93 - t95;
        const P t97 = c[1] * t85;
        const P t98 = t96 + t97;
        const P t99 = c[2] * t89;
        const P t100 = t98 - t99;
        const P t101 = c[3] * t82;
        const P t102 = c[4] * t86;
        const P t103 = t101 + t102;
        const P t104 = c[5] * t90;
        const P t105 = t103 - t104;
        const P t106 = c[1] * t81;
        const P t107 = c[2] * t85;
        const P t108 = t106 - t107;
        const P t109 = c[0] * t89;
        const P t110 = t108 - t109;
        const P t111 = t110 + t93;
        const P t112 = c[5] * t86;
        const P t113 = c[3] * t90;
        const P t114 = t112 + t113;
        const P t115 = c[4] * t82;
        const P t116 = t114 - t115;
        const P t117 = c[2] * t81;
        const P t118 = t93 - t117;
        const P t119 = c[0] * t85;
        const P t120 = t118 - t119;
        const P t121 = c[1] * t89;
        const P t122 = t120 + t121;
        const P t123 = c[5] * t82;
        const P t124 = c[3] * t86;
        const P t125 = t123 + t124;
        const P t126 = c[4] * t90;
        const P t127 = t125 + t126;
        const P t128 = shuffled<1, 3>(t12, t13);
        const P t129 = shuffled<1, 3>(t8, t9);
        // real block of 7, multiplier 4
        const P t130 = t128 + t129;
        const P t131 = t128 - t129;
        const P t132 = shuffled<0, 2>(t6, t7);
        const P t133 = shuffled<1, 3>(t4, t5);
        const P t134 = t132 + t133;
        const P t135 = t132 - t133;
        const P t136 = shuffled<0, 2>(t4, t5);
        const P t137 = shuffled<0, 2>(t22, t23);
        const P t138 = t136 + t137;
        const P t139 = t136 - t137;
        const P t140 = t130 + t134;
        const P t141 = t140 + t138;
        const P t142 = joined(t28, t29);
        const P t143 = t141 + t142;
        const P t144 = c[0] * t130;
        const P t145 = t142 - t144;
        const P t146 = c[1] * t134;
        const P t147 = t145 + t146;
        const P t148 = c[2] * t138;
        const P t149 = t147 - t148;
        const P t150 = c[3] * t131;
        const P t151 = c[4] * t135;
        const P t152 = t150 + t151;
        const P t153 = c[5] * t139;
        const P t154 = t152 - t153;
        const P t155 = c[1] * t130;
        const P t156 = c[2] * t134;
        const P t157 = t155 - t156;
        const P t158 = c[0] * t138;
        const P t159 = t157 - t158;
        const P t160 = t159 + t142;
        const P t161 = c[5] * t135;
        const P t162 = c[3] * t139;
        const P t163 = t161 + t162;
        const P t164 = c[4] * t131;
        const P t165 = t163 - t164;
        const P t166 = c[2] * t130;
        const P t167 = t142 - t166;
        const P t168 = c[0] * t134;
        const P t169 = t167 - t168;
        const P t170 = c[1] * t138;
        const P t171 = t169 + t170;
        const P t172 = c[5] * t131;
        const P t173 = c[3] * t135;
        const P t174 = t172 + t173;
        const P t175 = c[4] * t139;
        const P t176 = t174 + t175;
        const P t177 = shuffled<1, 3>(t10, t11);
        const P t178 = shuffled<1, 3>(t20, t21);
        // real block of 7, multiplier 4
        const P t179 = t177 + t178;
        const P t180 = t177 - t178;
        const P t181 = shuffled<0, 2>(t14, t15);
        const P t182 = shuffled<0, 2>(t2, t3);
        const P t183 = t181 + t182;
        const P t184 = t181 - t182;
        const P t185 = shuffled<1, 3>(t18, t19);
        const P t186 = shuffled<1, 3>(t2, t3);
        const P t187 = t185 + t186;
        const P t188 = t185 - t186;
        const P t189 = t179 + t183;
        const P t190 = t189 + t187;
        const P t191 = shuffled<1, 3>(t16, t17);
        const P t192 = t190 + t191;
        const P t193 = c[0] * t179;
        const P t194 = t191 - t193;
        const P t195 = c[1] * t183;
        const P t196 = t194 + t195;
        const P t197 = c[2] * t187;
        const P t198 = t196 - t197;
        const P t199 = c[3] * t180;
        const P t200 = c[4] * t184;
        const P t201 = t199 + t200;
        const P t202 = c[5] * t188;
        const P t203 = t201 - t202;
        const P t204 = c[1] * t179;
        const P t205 = c[2] * t183;
        const P t206 = t204 - t205;
        const P t207 = c[0] * t187;
        const P t208 = t206 - t207;
        const P t209 = t208 + t191;
        const P t210 = c[5] * t184;
        const P t211 = c[3] * t188;
        const P t212 = t210 + t211;
        const P t213 = c[4] * t180;
        const P t214 = t212 - t213;
        const P t215 = c[2] * t179;
        const P t216 = t191 - t215;
        const P t217 = c[0] * t183;
        const P t218 = t216 - t217;
        const P t219 = c[1] * t187;
        const P t220 = t218 + t219;
        const P t221 = c[5] * t180;
        const P t222 = c[3] * t184;
        const P t223 = t221 + t222;
        const P t224 = c[4] * t188;
        const P t225 = t223 + t224;
        // real block of 2
        const P t226 = t45 + t143;
        const P t227 = t45 - t143;
        // real block of 2
        const P t228 = t94 + t192;
        const P t229 = t94 - t192;
        // real block of 2
        const P t230 = t226 + t228;
        const P t231 = t226 - t228;
        // complex block of 2
        const P t232 = t51 + t149;
        const P t233 = t56 + t154;
        const P t234 = t51 - t149;
        const P t235 = t56 - t154;
        // complex block of 2
        const P t236 = t100 + t198;
        const P t237 = t105 + t203;
        const P t238 = t100 - t198;
        const P t239 = t105 - t203;
        // complex block of 2
        const P t240 = t232 + t236;
        const P t241 = t233 + t237;
        const P t242 = t232 - t236;
        const P t243 = t233 - t237;
        // complex block of 2
        const P t244 = t234 - t239;
        const P t245 = t235 + t238;
        const P t246 = t234 + t239;
        const P t247 = t235 - t238;
        // complex block of 2
        const P t248 = t62 + t160;
        const P t249 = t67 + t165;
        const P t250 = t62 - t160;
        const P t251 = t67 - t165;
        // complex block of 2
        const P t252 = t111 + t209;
        const P t253 = t116 + t214;
        const P t254 = t111 - t209;
        const P t255 = t116 - t214;
        // complex block of 2
        const P t256 = t248 + t252;
        const P t257 = t249 + t253;
        const P t258 = t248 - t252;
        const P t259 = t249 - t253;
        // complex block of 2
        const P t260 = t250 - t255;
        const P t261 = t251 + t254;
        const P t262 = t250 + t255;
        const P t263 = t251 - t254;
        // complex block of 2
        const P t264 = t73 + t171;
        const P t265 = t78 + t176;
        const P t266 = t73 - t171;
        const P t267 = t78 - t176;
        // complex block of 2
        const P t268 = t122 + t220;
        const P t269 = t127 + t225;
        const P t270 = t122 - t220;
        const P t271 = t127 - t225;
        // complex block of 2
        const P t272 = t264 + t268;
        const P t273 = t265 + t269;
        const P t274 = t264 - t268;
        const P t275 = t265 - t269;
        // complex block of 2
        const P t276 = t266 - t271;
        const P t277 = t267 + t270;
        const P t278 = t266 + t271;
        const P t279 = t267 - t270;
        const P t280 = shuffled<0, 2>(t0, t1);
        // real block of 29, multiplier 2
        const P t281 = t280 + t230;
        const V t282 = part<0>(t281);
        io.re(0, t282);
        const V t283 = part<1>(t281);
        io.re(29, t283);
        const P t284 = c[32] * t230;
        const P t285 = t280 - t284;
        const P t286 = c[6] * t262;
        const P t287 = c[7] * t263;
        const P t288 = t286 + t287;
        const P t289 = c[6] * t263;
        const P t290 = c[7] * t262;
        const P t291 = t289 - t290;
        const P t292 = c[8] * t274;
        const P t293 = c[9] * t275;
        const P t294 = t292 + t293;
        const P t295 = c[9] * t274;
        const P t296 = c[8] * t275;
        const P t297 = t295 - t296;
        const P t298 = c[10] * t246;
        const P t299 = c[11] * t247;
        const P t300 = t298 + t299;
        const P t301 = c[11] * t246;
        const P t302 = c[10] * t247;
        const P t303 = t301 - t302;
        const P t304 = c[12] * t240;
        const P t305 = c[13] * t241;
        const P t306 = t304 + t305;
        const P t307 = c[12] * t241;
        const P t308 = c[13] * t240;
        const P t309 = t307 - t308;
        const P t310 = c[14] * t279;
        const P t311 = c[15] * t278;
        const P t312 = t310 - t311;
        const P t313 = c[15] * t279;
        const P t314 = c[14] * t278;
        const P t315 = t313 + t314;
        const P t316 = c[16] * t258;
        const P t317 = c[17] * t259;
        const P t318 = t316 - t317;
        const P t319 = c[16] * t259;
        const P t320 = c[17] * t258;
        const P t321 = t319 + t320;
        const P t322 = c[18] * t227;
        const P t323 = c[19] * t229;
        const P t324 = t322 - t323;
        const P t325 = c[18] * t229;
        const P t326 = c[19] * t227;
        const P t327 = t325 + t326;
        const P t328 = c[20] * t256;
        const P t329 = c[21] * t257;
        const P t330 = t328 - t329;
        const P t331 = c[20] * t257;
        const P t332 = c[21] * t256;
        const P t333 = t331 + t332;
        const P t334 = c[22] * t277;
        const P t335 = c[23] * t276;
        const P t336 = t334 - t335;
        const P t337 = c[23] * t277;
        const P t338 = c[22] * t276;
        const P t339 = t337 + t338;
        const P t340 = c[24] * t242;
        const P t341 = c[25] * t243;
        const P t342 = t340 + t341;
        const P t343 = c[24] * t243;
        const P t344 = c[25] * t242;
        const P t345 = t343 - t344;
        const P t346 = c[26] * t244;
        const P t347 = c[27] * t245;
        const P t348 = t346 - t347;
        const P t349 = c[26] * t245;
        const P t350 = c[27] * t244;
        const P t351 = t349 + t350;
        const P t352 = c[28] * t272;
        const P t353 = c[29] * t273;
        const P t354 = t352 + t353;
        const P t355 = c[28] * t273;
        const P t356 = c[29] * t272;
        const P t357 = t355 - t356;
        const P t358 = c[30] * t260;
        const P t359 = c[31] * t261;
        const P t360 = t358 - t359;
        const P t361 = c[30] * t261;
        const P t362 = c[31] * t260;
        const P t363 = t361 + t362;
        const P t364 = c[33] * t231;
        // spectrum block of 2
        const P t365 = t285 - t364;
        const P t366 = t285 + t364;
        // complex block of 2
        const P t367 = t309 - t345;
        const P t368 = t306 - t342;
        const P t369 = t309 + t345;
        const P t370 = t306 + t342;
        // complex block of 2
        const P t371 = t333 + t321;
        const P t372 = t330 + t318;
        const P t373 = t333 - t321;
        const P t374 = t330 - t318;
        // complex block of 2
        const P t375 = t357 - t297;
        const P t376 = t354 + t294;
        const P t377 = t357 + t297;
        const P t378 = t354 - t294;
        // spectrum block of 7, multiplier 2
        const P t379 = t368 + t372;
        const P t380 = t379 + t376;
        const P t381 = t380 + t365;
        const P t382 = c[1] * t368;
        const P t383 = c[2] * t372;
        const P t384 = t382 - t383;
        const P t385 = c[0] * t376;
        const P t386 = t384 - t385;
        const P t387 = t386 + t365;
        const P t388 = c[4] * t367;
        const P t389 = c[5] * t371;
        const P t390 = t388 + t389;
        const P t391 = c[3] * t375;
        const P t392 = t390 + t391;
        const P t393 = t387 - t392;
        const P t394 = t387 + t392;
        const P t395 = c[2] * t368;
        const P t396 = t365 - t395;
        const P t397 = c[0] * t372;
        const P t398 = t396 - t397;
        const P t399 = c[1] * t376;
        const P t400 = t398 + t399;
        const P t401 = c[5] * t367;
        const P t402 = c[3] * t371;
        const P t403 = t401 - t402;
        const P t404 = c[4] * t375;
        const P t405 = t403 - t404;
        const P t406 = t400 - t405;
        const P t407 = t400 + t405;
        const P t408 = c[0] * t368;
        const P t409 = t365 - t408;
        const P t410 = c[1] * t372;
        const P t411 = t409 + t410;
        const P t412 = c[2] * t376;
        const P t413 = t411 - t412;
        const P t414 = c[3] * t367;
        const P t415 = c[4] * t371;
        const P t416 = t414 - t415;
        const P t417 = c[5] * t375;
        const P t418 = t416 + t417;
        const P t419 = t413 - t418;
        const P t420 = t413 + t418;
        // spectrum block of 7, multiplier 2
        const P t421 = t370 + t374;
        const P t422 = t421 + t378;
        const P t423 = t422 + t366;
        const P t424 = c[1] * t370;
        const P t425 = c[2] * t374;
        const P t426 = t424 - t425;
        const P t427 = c[0] * t378;
        const P t428 = t426 - t427;
        const P t429 = t428 + t366;
        const P t430 = c[4] * t369;
        const P t431 = c[5] * t373;
        const P t432 = t430 + t431;
        const P t433 = c[3] * t377;
        const P t434 = t432 + t433;
        const P t435 = t429 - t434;
        const P t436 = t429 + t434;
        const P t437 = c[2] * t370;
        const P t438 = t366 - t437;
        const P t439 = c[0] * t374;
        const P t440 = t438 - t439;
        const P t441 = c[1] * t378;
        const P t442 = t440 + t441;
        const P t443 = c[5] * t369;
        const P t444 = c[3] * t373;
        const P t445 = t443 - t444;
        const P t446 = c[4] * t377;
        const P t447 = t445 - t446;
        const P t448 = t442 - t447;
        const P t449 = t442 + t447;
        const P t450 = c[0] * t370;
        const P t451 = t366 - t450;
        const P t452 = c[1] * t374;
        const P t453 = t451 + t452;
        const P t454 = c[2] * t378;
        const P t455 = t453 - t454;
        const P t456 = c[3] * t369;
        const P t457 = c[4] * t373;
        const P t458 = t456 - t457;
        const P t459 = c[5] * t377;
        const P t460 = t458 + t459;
        const P t461 = t455 - t460;
        const P t462 = t455 + t460;
        // complex block of 2
        const P t463 = t360 - t288;
        const P t464 = t291 - t363;
        const P t465 = t288 + t360;
        const P t466 = t291 + t363;
        // mirrored skew block of 14
        const P t467 = c[5] * t466;
        const P t468 = c[2] * t465;
        const P t469 = t467 + t468;
        const P t470 = c[2] * t466;
        const P t471 = c[5] * t465;
        const P t472 = t470 - t471;
        // complex block of 2
        const P t473 = t348 - t300;
        const P t474 = t303 + t351;
        const P t475 = t300 + t348;
        const P t476 = t303 - t351;
        // mirrored skew block of 14
        const P t477 = c[4] * t476;
        const P t478 = c[1] * t475;
        const P t479 = t477 + t478;
        const P t480 = c[1] * t476;
        const P t481 = c[4] * t475;
        const P t482 = t480 - t481;
        // complex block of 2
        const P t483 = t336 - t312;
        const P t484 = t339 - t315;
        const P t485 = t312 + t336;
        const P t486 = t315 + t339;
        // mirrored skew block of 14
        const P t487 = c[0] * t485;
        const P t488 = c[3] * t486;
        const P t489 = t487 - t488;
        const P t490 = c[3] * t485;
        const P t491 = c[0] * t486;
        const P t492 = t490 + t491;
        // spectrum block of 7, multiplier 2
        const P t493 = t484 + t474;
        const P t494 = t493 + t464;
        const P t495 = t494 + t327;
        const P t496 = shuffled<0, 2>(t381, t495);
        io.pair(2, t496);
        const P t497 = shuffled<1, 3>(t381, t495);
        io.pair(27, negated<0, 1>(t497));
        const P t498 = c[1] * t484;
        const P t499 = c[2] * t474;
        const P t500 = t498 - t499;
        const P t501 = c[0] * t464;
        const P t502 = t500 - t501;
        const P t503 = t502 + t327;
        const P t504 = c[4] * t483;
        const P t505 = c[5] * t473;
        const P t506 = t504 + t505;
        const P t507 = c[3] * t463;
        const P t508 = t506 + t507;
        const P t509 = t503 + t508;
        const P t510 = shuffled<0, 2>(t406, t509);
        io.pair(14, t510);
        const P t511 = shuffled<1, 3>(t406, t509);
        io.pair(15, negated<0, 1>(t511));
        const P t512 = t503 - t508;
        const P t513 = shuffled<0, 2>(t407, t512);
        io.pair(8, negated<0, 1>(t513));
        const P t514 = shuffled<1, 3>(t407, t512);
        io.pair(21, t514);
        const P t515 = c[2] * t484;
        const P t516 = t327 - t515;
        const P t517 = c[0] * t474;
        const P t518 = t516 - t517;
        const P t519 = c[1] * t464;
        const P t520 = t518 + t519;
        const P t521 = c[3] * t473;
        const P t522 = c[5] * t483;
        const P t523 = t521 - t522;
        const P t524 = c[4] * t463;
        const P t525 = t523 + t524;
        const P t526 = t520 - t525;
        const P t527 = shuffled<1, 3>(t420, t526);
        io.pair(11, t527);
        const P t528 = shuffled<0, 2>(t420, t526);
        io.pair(18, negated<0, 1>(t528));
        const P t529 = t520 + t525;
        const P t530 = shuffled<1, 3>(t419, t529);
        io.pair(3, t530);
        const P t531 = shuffled<0, 2>(t419, t529);
        io.pair(26, negated<0, 1>(t531));
        const P t532 = c[0] * t484;
        const P t533 = t327 - t532;
        const P t534 = c[1] * t474;
        const P t535 = t533 + t534;
        const P t536 = c[2] * t464;
        const P t537 = t535 - t536;
        const P t538 = c[4] * t473;
        const P t539 = c[3] * t483;
        const P t540 = t538 - t539;
        const P t541 = c[5] * t463;
        const P t542 = t540 - t541;
        const P t543 = t537 - t542;
        const P t544 = shuffled<0, 2>(t394, t543);
        io.pair(10, negated<0, 1>(t544));
        const P t545 = shuffled<1, 3>(t394, t543);
        io.pair(19, t545);
        const P t546 = t537 + t542;
        const P t547 = shuffled<0, 2>(t393, t546);
        io.pair(12, negated<0, 1>(t547));
        const P t548 = shuffled<1, 3>(t393, t546);
        io.pair(17, t548);
        // spectrum block of 7, multiplier 2
        const P t549 = t489 + t479;
        const P t550 = t549 + t469;
        const P t551 = t550 + t324;
        const P t552 = shuffled<1, 3>(t435, t551);
        io.pair(1, t552);
        const P t553 = shuffled<0, 2>(t435, t551);
        io.pair(28, negated<0, 1>(t553));
        const P t554 = c[1] * t489;
        const P t555 = c[2] * t479;
        const P t556 = t554 - t555;
        const P t557 = c[0] * t469;
        const P t558 = t556 - t557;
        const P t559 = t558 + t324;
        const P t560 = c[4] * t492;
        const P t561 = c[5] * t482;
        const P t562 = t560 - t561;
        const P t563 = c[3] * t472;
        const P t564 = t562 - t563;
        const P t565 = t559 - t564;
        const P t566 = shuffled<1, 3>(t461, t565);
        io.pair(7, t566);
        const P t567 = shuffled<0, 2>(t461, t565);
        io.pair(22, negated<0, 1>(t567));
        const P t568 = t559 + t564;
        const P t569 = shuffled<0, 2>(t436, t568);
        io.pair(4, negated<0, 1>(t569));
        const P t570 = shuffled<1, 3>(t436, t568);
        io.pair(25, t570);
        const P t571 = c[2] * t489;
        const P t572 = t324 - t571;
        const P t573 = c[0] * t479;
        const P t574 = t572 - t573;
        const P t575 = c[1] * t469;
        const P t576 = t574 + t575;
        const P t577 = c[5] * t492;
        const P t578 = c[3] * t482;
        const P t579 = t577 + t578;
        const P t580 = c[4] * t472;
        const P t581 = t579 + t580;
        const P t582 = t576 - t581;
        const P t583 = shuffled<1, 3>(t449, t582);
        io.pair(9, negated<0, 1>(t583));
        const P t584 = shuffled<0, 2>(t449, t582);
        io.pair(20, t584);
        const P t585 = t576 + t581;
        const P t586 = shuffled<1, 3>(t462, t585);
        io.pair(13, negated<0, 1>(t586));
        const P t587 = shuffled<0, 2>(t462, t585);
        io.pair(16, t587);
        const P t588 = c[0] * t489;
        const P t589 = t324 - t588;
        const P t590 = c[1] * t479;
        const P t591 = t589 + t590;
        const P t592 = c[2] * t469;
        const P t593 = t591 - t592;
        const P t594 = c[3] * t492;
        const P t595 = c[4] * t482;
        const P t596 = t594 + t595;
        const P t597 = c[5] * t472;
        const P t598 = t596 - t597;
        const P t599 = t593 - t598;
        const P t600 = shuffled<1, 3>(t423, t599);
        io.pair(5, negated<0, 1>(t600));
        const P t601 = shuffled<0, 2>(t423, t599);
        io.pair(24, t601);
        const P t602 = t593 + t598;
        const P t603 = shuffled<0, 2>(t448, t602);
        io.pair(6, negated<0, 1>(t603));
        const P t604 = shuffled<1, 3>(t448, t602);
        io.pair(23, t604);
    }
};

}  // namespace zulg
