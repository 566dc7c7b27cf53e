// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 58.
// Hartley transform of 58 points, form F; two lanes to a register.
// 200 sums, 192 differences, 210 products of registers, which do the 1204 steps of the graph, those with
// `scale` included; 57 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<58> {
    static constexpr int steps = 1204;  // with `scale`
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
        const ConstantsOf<Ports, HartleyPairs> c{};
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
        io.out(0, 29, t281);
        const P t282 = c[32] * t230;
        const P t283 = t280 - t282;
        const P t284 = c[6] * t262;
        const P t285 = c[7] * t263;
        const P t286 = t284 + t285;
        const P t287 = c[6] * t263;
        const P t288 = c[7] * t262;
        const P t289 = t287 - t288;
        const P t290 = c[8] * t274;
        const P t291 = c[9] * t275;
        const P t292 = t290 + t291;
        const P t293 = c[9] * t274;
        const P t294 = c[8] * t275;
        const P t295 = t293 - t294;
        const P t296 = c[10] * t246;
        const P t297 = c[11] * t247;
        const P t298 = t296 + t297;
        const P t299 = c[11] * t246;
        const P t300 = c[10] * t247;
        const P t301 = t299 - t300;
        const P t302 = c[12] * t240;
        const P t303 = c[13] * t241;
        const P t304 = t302 + t303;
        const P t305 = c[12] * t241;
        const P t306 = c[13] * t240;
        const P t307 = t305 - t306;
        const P t308 = c[14] * t279;
        const P t309 = c[15] * t278;
        const P t310 = t308 - t309;
        const P t311 = c[15] * t279;
        const P t312 = c[14] * t278;
        const P t313 = t311 + t312;
        const P t314 = c[16] * t258;
        const P t315 = c[17] * t259;
        const P t316 = t314 - t315;
        const P t317 = c[16] * t259;
        const P t318 = c[17] * t258;
        const P t319 = t317 + t318;
        const P t320 = c[18] * t227;
        const P t321 = c[19] * t229;
        const P t322 = t320 - t321;
        const P t323 = c[18] * t229;
        const P t324 = c[19] * t227;
        const P t325 = t323 + t324;
        const P t326 = c[20] * t256;
        const P t327 = c[21] * t257;
        const P t328 = t326 - t327;
        const P t329 = c[20] * t257;
        const P t330 = c[21] * t256;
        const P t331 = t329 + t330;
        const P t332 = c[22] * t277;
        const P t333 = c[23] * t276;
        const P t334 = t332 - t333;
        const P t335 = c[23] * t277;
        const P t336 = c[22] * t276;
        const P t337 = t335 + t336;
        const P t338 = c[24] * t242;
        const P t339 = c[25] * t243;
        const P t340 = t338 + t339;
        const P t341 = c[24] * t243;
        const P t342 = c[25] * t242;
        const P t343 = t341 - t342;
        const P t344 = c[26] * t244;
        const P t345 = c[27] * t245;
        const P t346 = t344 - t345;
        const P t347 = c[26] * t245;
        const P t348 = c[27] * t244;
        const P t349 = t347 + t348;
        const P t350 = c[28] * t272;
        const P t351 = c[29] * t273;
        const P t352 = t350 + t351;
        const P t353 = c[28] * t273;
        const P t354 = c[29] * t272;
        const P t355 = t353 - t354;
        const P t356 = c[30] * t260;
        const P t357 = c[31] * t261;
        const P t358 = t356 - t357;
        const P t359 = c[30] * t261;
        const P t360 = c[31] * t260;
        const P t361 = t359 + t360;
        const P t362 = c[33] * t231;
        // spectrum block of 2
        const P t363 = t283 - t362;
        const P t364 = t283 + t362;
        // complex block of 2
        const P t365 = t307 - t343;
        const P t366 = t304 - t340;
        const P t367 = t307 + t343;
        const P t368 = t304 + t340;
        // complex block of 2
        const P t369 = t331 + t319;
        const P t370 = t328 + t316;
        const P t371 = t331 - t319;
        const P t372 = t328 - t316;
        // complex block of 2
        const P t373 = t355 - t295;
        const P t374 = t352 + t292;
        const P t375 = t355 + t295;
        const P t376 = t352 - t292;
        // spectrum block of 7, multiplier 2
        const P t377 = t366 + t370;
        const P t378 = t377 + t374;
        const P t379 = t378 + t363;
        const P t380 = c[1] * t366;
        const P t381 = c[2] * t370;
        const P t382 = t380 - t381;
        const P t383 = c[0] * t374;
        const P t384 = t382 - t383;
        const P t385 = t384 + t363;
        const P t386 = c[4] * t365;
        const P t387 = c[5] * t369;
        const P t388 = t386 + t387;
        const P t389 = c[3] * t373;
        const P t390 = t388 + t389;
        const P t391 = t385 - t390;
        const P t392 = t385 + t390;
        const P t393 = c[2] * t366;
        const P t394 = t363 - t393;
        const P t395 = c[0] * t370;
        const P t396 = t394 - t395;
        const P t397 = c[1] * t374;
        const P t398 = t396 + t397;
        const P t399 = c[5] * t365;
        const P t400 = c[3] * t369;
        const P t401 = t399 - t400;
        const P t402 = c[4] * t373;
        const P t403 = t401 - t402;
        const P t404 = t398 - t403;
        const P t405 = t398 + t403;
        const P t406 = c[0] * t366;
        const P t407 = t363 - t406;
        const P t408 = c[1] * t370;
        const P t409 = t407 + t408;
        const P t410 = c[2] * t374;
        const P t411 = t409 - t410;
        const P t412 = c[3] * t365;
        const P t413 = c[4] * t369;
        const P t414 = t412 - t413;
        const P t415 = c[5] * t373;
        const P t416 = t414 + t415;
        const P t417 = t411 - t416;
        const P t418 = t411 + t416;
        // spectrum block of 7, multiplier 2
        const P t419 = t368 + t372;
        const P t420 = t419 + t376;
        const P t421 = t420 + t364;
        const P t422 = c[1] * t368;
        const P t423 = c[2] * t372;
        const P t424 = t422 - t423;
        const P t425 = c[0] * t376;
        const P t426 = t424 - t425;
        const P t427 = t426 + t364;
        const P t428 = c[4] * t367;
        const P t429 = c[5] * t371;
        const P t430 = t428 + t429;
        const P t431 = c[3] * t375;
        const P t432 = t430 + t431;
        const P t433 = t427 - t432;
        const P t434 = t427 + t432;
        const P t435 = c[2] * t368;
        const P t436 = t364 - t435;
        const P t437 = c[0] * t372;
        const P t438 = t436 - t437;
        const P t439 = c[1] * t376;
        const P t440 = t438 + t439;
        const P t441 = c[5] * t367;
        const P t442 = c[3] * t371;
        const P t443 = t441 - t442;
        const P t444 = c[4] * t375;
        const P t445 = t443 - t444;
        const P t446 = t440 - t445;
        const P t447 = t440 + t445;
        const P t448 = c[0] * t368;
        const P t449 = t364 - t448;
        const P t450 = c[1] * t372;
        const P t451 = t449 + t450;
        const P t452 = c[2] * t376;
        const P t453 = t451 - t452;
        const P t454 = c[3] * t367;
        const P t455 = c[4] * t371;
        const P t456 = t454 - t455;
        const P t457 = c[5] * t375;
        const P t458 = t456 + t457;
        const P t459 = t453 - t458;
        const P t460 = t453 + t458;
        // complex block of 2
        const P t461 = t358 - t286;
        const P t462 = t289 - t361;
        const P t463 = t286 + t358;
        const P t464 = t289 + t361;
        // mirrored skew block of 14
        const P t465 = c[5] * t464;
        const P t466 = c[2] * t463;
        const P t467 = t465 + t466;
        const P t468 = c[2] * t464;
        const P t469 = c[5] * t463;
        const P t470 = t468 - t469;
        // complex block of 2
        const P t471 = t346 - t298;
        const P t472 = t301 + t349;
        const P t473 = t298 + t346;
        const P t474 = t301 - t349;
        // mirrored skew block of 14
        const P t475 = c[4] * t474;
        const P t476 = c[1] * t473;
        const P t477 = t475 + t476;
        const P t478 = c[1] * t474;
        const P t479 = c[4] * t473;
        const P t480 = t478 - t479;
        // complex block of 2
        const P t481 = t334 - t310;
        const P t482 = t337 - t313;
        const P t483 = t310 + t334;
        const P t484 = t313 + t337;
        // mirrored skew block of 14
        const P t485 = c[0] * t483;
        const P t486 = c[3] * t484;
        const P t487 = t485 - t486;
        const P t488 = c[3] * t483;
        const P t489 = c[0] * t484;
        const P t490 = t488 + t489;
        // spectrum block of 7, multiplier 2
        const P t491 = t482 + t472;
        const P t492 = t491 + t462;
        const P t493 = t492 + t325;
        const P t494 = c[1] * t482;
        const P t495 = c[2] * t472;
        const P t496 = t494 - t495;
        const P t497 = c[0] * t462;
        const P t498 = t496 - t497;
        const P t499 = t498 + t325;
        const P t500 = c[4] * t481;
        const P t501 = c[5] * t471;
        const P t502 = t500 + t501;
        const P t503 = c[3] * t461;
        const P t504 = t502 + t503;
        const P t505 = t499 + t504;
        const P t506 = t499 - t504;
        const P t507 = c[2] * t482;
        const P t508 = t325 - t507;
        const P t509 = c[0] * t472;
        const P t510 = t508 - t509;
        const P t511 = c[1] * t462;
        const P t512 = t510 + t511;
        const P t513 = c[3] * t471;
        const P t514 = c[5] * t481;
        const P t515 = t513 - t514;
        const P t516 = c[4] * t461;
        const P t517 = t515 + t516;
        const P t518 = t512 - t517;
        const P t519 = t512 + t517;
        const P t520 = c[0] * t482;
        const P t521 = t325 - t520;
        const P t522 = c[1] * t472;
        const P t523 = t521 + t522;
        const P t524 = c[2] * t462;
        const P t525 = t523 - t524;
        const P t526 = c[4] * t471;
        const P t527 = c[3] * t481;
        const P t528 = t526 - t527;
        const P t529 = c[5] * t461;
        const P t530 = t528 - t529;
        const P t531 = t525 - t530;
        const P t532 = t525 + t530;
        // spectrum block of 7, multiplier 2
        const P t533 = t487 + t477;
        const P t534 = t533 + t467;
        const P t535 = t534 + t322;
        const P t536 = c[1] * t487;
        const P t537 = c[2] * t477;
        const P t538 = t536 - t537;
        const P t539 = c[0] * t467;
        const P t540 = t538 - t539;
        const P t541 = t540 + t322;
        const P t542 = c[4] * t490;
        const P t543 = c[5] * t480;
        const P t544 = t542 - t543;
        const P t545 = c[3] * t470;
        const P t546 = t544 - t545;
        const P t547 = t541 - t546;
        const P t548 = t541 + t546;
        const P t549 = c[2] * t487;
        const P t550 = t322 - t549;
        const P t551 = c[0] * t477;
        const P t552 = t550 - t551;
        const P t553 = c[1] * t467;
        const P t554 = t552 + t553;
        const P t555 = c[5] * t490;
        const P t556 = c[3] * t480;
        const P t557 = t555 + t556;
        const P t558 = c[4] * t470;
        const P t559 = t557 + t558;
        const P t560 = t554 - t559;
        const P t561 = t554 + t559;
        const P t562 = c[0] * t487;
        const P t563 = t322 - t562;
        const P t564 = c[1] * t477;
        const P t565 = t563 + t564;
        const P t566 = c[2] * t467;
        const P t567 = t565 - t566;
        const P t568 = c[3] * t490;
        const P t569 = c[4] * t480;
        const P t570 = t568 + t569;
        const P t571 = c[5] * t470;
        const P t572 = t570 - t571;
        const P t573 = t567 - t572;
        const P t574 = t567 + t572;
        const V t575 = part<1>(t433);
        const V t576 = part<1>(t535);
        // output stage
        const V t577 = t575 - t576;
        io.out(1, t577);
        const V t578 = t575 + t576;
        io.out(57, t578);
        const V t579 = part<0>(t379);
        const V t580 = part<0>(t493);
        const V t581 = t579 - t580;
        io.out(2, t581);
        const V t582 = t579 + t580;
        io.out(56, t582);
        const V t583 = part<1>(t417);
        const V t584 = part<1>(t519);
        const V t585 = t583 - t584;
        io.out(3, t585);
        const V t586 = t583 + t584;
        io.out(55, t586);
        const V t587 = part<0>(t434);
        const V t588 = part<0>(t548);
        const V t589 = t587 + t588;
        io.out(4, t589);
        const V t590 = t587 - t588;
        io.out(54, t590);
        const V t591 = part<1>(t421);
        const V t592 = part<1>(t573);
        const V t593 = t591 + t592;
        io.out(5, t593);
        const V t594 = t591 - t592;
        io.out(53, t594);
        const V t595 = part<0>(t446);
        const V t596 = part<0>(t574);
        const V t597 = t595 + t596;
        io.out(6, t597);
        const V t598 = t595 - t596;
        io.out(52, t598);
        const V t599 = part<1>(t459);
        const V t600 = part<1>(t547);
        const V t601 = t599 - t600;
        io.out(7, t601);
        const V t602 = t599 + t600;
        io.out(51, t602);
        const V t603 = part<0>(t405);
        const V t604 = part<0>(t506);
        const V t605 = t603 + t604;
        io.out(8, t605);
        const V t606 = t603 - t604;
        io.out(50, t606);
        const V t607 = part<1>(t447);
        const V t608 = part<1>(t560);
        const V t609 = t607 + t608;
        io.out(9, t609);
        const V t610 = t607 - t608;
        io.out(49, t610);
        const V t611 = part<0>(t392);
        const V t612 = part<0>(t531);
        const V t613 = t611 + t612;
        io.out(10, t613);
        const V t614 = t611 - t612;
        io.out(48, t614);
        const V t615 = part<1>(t418);
        const V t616 = part<1>(t518);
        const V t617 = t615 - t616;
        io.out(11, t617);
        const V t618 = t615 + t616;
        io.out(47, t618);
        const V t619 = part<0>(t391);
        const V t620 = part<0>(t532);
        const V t621 = t619 + t620;
        io.out(12, t621);
        const V t622 = t619 - t620;
        io.out(46, t622);
        const V t623 = part<1>(t460);
        const V t624 = part<1>(t561);
        const V t625 = t623 + t624;
        io.out(13, t625);
        const V t626 = t623 - t624;
        io.out(45, t626);
        const V t627 = part<0>(t404);
        const V t628 = part<0>(t505);
        const V t629 = t627 - t628;
        io.out(14, t629);
        const V t630 = t627 + t628;
        io.out(44, t630);
        const V t631 = part<1>(t404);
        const V t632 = part<1>(t505);
        const V t633 = t631 + t632;
        io.out(15, t633);
        const V t634 = t631 - t632;
        io.out(43, t634);
        const V t635 = part<0>(t460);
        const V t636 = part<0>(t561);
        const V t637 = t635 - t636;
        io.out(16, t637);
        const V t638 = t635 + t636;
        io.out(42, t638);
        const V t639 = part<1>(t391);
        const V t640 = part<1>(t532);
        const V t641 = t639 - t640;
        io.out(17, t641);
        const V t642 = t639 + t640;
        io.out(41, t642);
        const V t643 = part<0>(t418);
        const V t644 = part<0>(t518);
        const V t645 = t643 + t644;
        io.out(18, t645);
        const V t646 = t643 - t644;
        io.out(40, t646);
        const V t647 = part<1>(t392);
        const V t648 = part<1>(t531);
        const V t649 = t647 - t648;
        io.out(19, t649);
        const V t650 = t647 + t648;
        io.out(39, t650);
        const V t651 = part<0>(t447);
        const V t652 = part<0>(t560);
        const V t653 = t651 - t652;
        io.out(20, t653);
        const V t654 = t651 + t652;
        io.out(38, t654);
        const V t655 = part<1>(t405);
        const V t656 = part<1>(t506);
        const V t657 = t655 - t656;
        io.out(21, t657);
        const V t658 = t655 + t656;
        io.out(37, t658);
        const V t659 = part<0>(t459);
        const V t660 = part<0>(t547);
        const V t661 = t659 + t660;
        io.out(22, t661);
        const V t662 = t659 - t660;
        io.out(36, t662);
        const V t663 = part<1>(t446);
        const V t664 = part<1>(t574);
        const V t665 = t663 - t664;
        io.out(23, t665);
        const V t666 = t663 + t664;
        io.out(35, t666);
        const V t667 = part<0>(t421);
        const V t668 = part<0>(t573);
        const V t669 = t667 - t668;
        io.out(24, t669);
        const V t670 = t667 + t668;
        io.out(34, t670);
        const V t671 = part<1>(t434);
        const V t672 = part<1>(t548);
        const V t673 = t671 - t672;
        io.out(25, t673);
        const V t674 = t671 + t672;
        io.out(33, t674);
        const V t675 = part<0>(t417);
        const V t676 = part<0>(t519);
        const V t677 = t675 + t676;
        io.out(26, t677);
        const V t678 = t675 - t676;
        io.out(32, t678);
        const V t679 = part<1>(t379);
        const V t680 = part<1>(t493);
        const V t681 = t679 + t680;
        io.out(27, t681);
        const V t682 = t679 - t680;
        io.out(31, t682);
        const V t683 = part<0>(t433);
        const V t684 = part<0>(t535);
        const V t685 = t683 + t684;
        io.out(28, t685);
        const V t686 = t683 - t684;
        io.out(30, t686);
    }
};

}  // namespace zulg
