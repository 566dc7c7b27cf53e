// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 58.
// Complex DFT of 58 points, prime-factor, order 29, 2; two lines of a stage to a register.
// 189 sums, 169 differences, 198 products of registers, which do the 2336 steps of the graph, those with
// `scale` included; 75 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<58> {
    static constexpr int steps = 2336;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 20/7
        0.2225209339563144,  // c[1]: -cos 2 pi 16/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.3219828698364479,  // c[6]: Q[1] of 29
        0.21044290248272673,  // c[7]: P[1] of 29
        0.3398943908268515,  // c[8]: Q[13] of 29
        0.1800860537573993,  // c[9]: P[13] of 29
        0.38084126020120657,  // c[10]: P[6] of 29
        0.054028864524680344,  // c[11]: -Q[6] of 29
        0.2786653006997481,  // c[12]: P[8] of 29
        0.26515058713755163,  // c[13]: Q[8] of 29
        0.012126226322052493,  // c[14]: -Q[3] of 29
        0.384463442096457,  // c[15]: P[3] of 29
        0.38413584113980626,  // c[16]: -Q[11] of 29
        0.019970959548377194,  // c[17]: P[11] of 29
        0.3609030660383976,  // c[18]: P[4] of 29
        0.1330720128259635,  // c[19]: -Q[4] of 29
        0.2987602224736465,  // c[20]: -P[10] of 29
        0.24228395147216553,  // c[21]: -Q[10] of 29
        0.07274108340629196,  // c[22]: -Q[7] of 29
        0.3777140697119294,  // c[23]: P[7] of 29
        0.3298297662985413,  // c[24]: P[2] of 29
        0.19791793485411824,  // c[25]: Q[2] of 29
        0.08413784916151361,  // c[26]: P[12] of 29
        0.3753398540149231,  // c[27]: -Q[12] of 29
        0.13150502224471186,  // c[28]: -P[5] of 29
        0.36147698792300353,  // c[29]: Q[5] of 29
        0.13446199615788765,  // c[30]: -Q[9] of 29
        0.3603875070846735,  // c[31]: -P[9] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x30_1 = io.pairs(30, 1);
        const Q x28_57 = io.pairs(28, 57);
        // real block of 2
        const Q t0 = x30_1 + x28_57;
        const Q t1 = x30_1 - x28_57;
        const Q x54_25 = io.pairs(54, 25);
        const Q x4_33 = io.pairs(4, 33);
        // real block of 2
        const Q t2 = x54_25 + x4_33;
        const Q t3 = x54_25 - x4_33;
        const Q x48_19 = io.pairs(48, 19);
        const Q x10_39 = io.pairs(10, 39);
        // real block of 2
        const Q t4 = x48_19 + x10_39;
        const Q t5 = x48_19 - x10_39;
        const Q x46_17 = io.pairs(46, 17);
        const Q x12_41 = io.pairs(12, 41);
        // real block of 2
        const Q t6 = x46_17 + x12_41;
        const Q t7 = x46_17 - x12_41;
        // real block of 2
        const Q t8 = t4 + t2;
        const Q t9 = t4 - t2;
        // real block of 2
        const Q t10 = t6 + t0;
        const Q t11 = t6 - t0;
        // complex block of 7, multiplier 4
        const Q t12 = t7 + t5;
        const Q t13 = t1 + t3;
        const Q x2_31 = io.pairs(2, 31);
        const Q x56_27 = io.pairs(56, 27);
        // real block of 2
        const Q t14 = x2_31 + x56_27;
        const Q t15 = x2_31 - x56_27;
        const Q x32_3 = io.pairs(32, 3);
        const Q x26_55 = io.pairs(26, 55);
        // real block of 2
        const Q t16 = x32_3 + x26_55;
        const Q t17 = x32_3 - x26_55;
        const Q x36_7 = io.pairs(36, 7);
        const Q x22_51 = io.pairs(22, 51);
        // real block of 2
        const Q t18 = x36_7 + x22_51;
        const Q t19 = x36_7 - x22_51;
        const Q x40_11 = io.pairs(40, 11);
        const Q x18_47 = io.pairs(18, 47);
        // real block of 2
        const Q t20 = x40_11 + x18_47;
        const Q t21 = x40_11 - x18_47;
        const Q x16_45 = io.pairs(16, 45);
        const Q x42_13 = io.pairs(42, 13);
        // real block of 2
        const Q t22 = x16_45 + x42_13;
        const Q t23 = x16_45 - x42_13;
        // real block of 2
        const Q t24 = t16 + t18;
        const Q t25 = t16 - t18;
        // real block of 2
        const Q t26 = t20 + t22;
        const Q t27 = t20 - t22;
        // complex block of 7, multiplier 4
        const Q t28 = t17 + t21;
        const Q t29 = t19 + t23;
        const Q x24_53 = io.pairs(24, 53);
        const Q x34_5 = io.pairs(34, 5);
        // real block of 2
        const Q t30 = x24_53 + x34_5;
        const Q t31 = x24_53 - x34_5;
        // real block of 2
        const Q t32 = t14 + t30;
        const Q t33 = t14 - t30;
        // real block of 7, multiplier 4
        const Q t34 = t24 + t26;
        const Q t35 = t24 - t26;
        const Q t36 = t10 + t8;
        const Q t37 = t10 - t8;
        // complex block of 7, multiplier 4
        const Q t38 = t17 - t21;
        const Q t39 = t19 - t23;
        const Q t40 = t7 - t5;
        const Q t41 = t1 - t3;
        const Q t42 = t28 + t12;
        const Q t43 = t29 + t13;
        const Q t44 = c[0] * t28;
        const Q t45 = c[1] * t12;
        const Q t46 = t44 - t45;
        const Q t47 = c[0] * t29;
        const Q t48 = c[1] * t13;
        const Q t49 = t47 - t48;
        const Q t50 = c[1] * t28;
        const Q t51 = t15 - t50;
        const Q t52 = c[1] * t29;
        const Q t53 = t31 - t52;
        const Q t54 = c[2] * t28;
        const Q t55 = t15 - t54;
        const Q t56 = c[2] * t29;
        const Q t57 = t31 - t56;
        // real block of 7, multiplier 4
        const Q t58 = t25 + t27;
        const Q t59 = t25 - t27;
        const Q t60 = t11 + t9;
        const Q t61 = t11 - t9;
        const Q x52_23 = io.pairs(52, 23);
        const Q x6_35 = io.pairs(6, 35);
        // real block of 2
        const Q t62 = x52_23 + x6_35;
        const Q t63 = x52_23 - x6_35;
        const Q x50_21 = io.pairs(50, 21);
        const Q x8_37 = io.pairs(8, 37);
        // real block of 2
        const Q t64 = x50_21 + x8_37;
        const Q t65 = x50_21 - x8_37;
        const Q x20_49 = io.pairs(20, 49);
        const Q x38_9 = io.pairs(38, 9);
        // real block of 2
        const Q t66 = x20_49 + x38_9;
        const Q t67 = x20_49 - x38_9;
        const Q x14_43 = io.pairs(14, 43);
        const Q x44_15 = io.pairs(44, 15);
        // real block of 2
        const Q t68 = x14_43 + x44_15;
        const Q t69 = x14_43 - x44_15;
        // real block of 2
        const Q t70 = t68 + t62;
        // real block of 2
        const Q t71 = t64 + t66;
        // real block of 7, multiplier 4
        const Q t72 = t71 + t70;
        const Q t73 = t71 - t70;
        // real block of 2
        const Q t74 = t68 - t62;
        // real block of 2
        const Q t75 = t64 - t66;
        // real block of 7, multiplier 4
        const Q t76 = t75 + t74;
        const Q t77 = t75 - t74;
        // complex block of 7, multiplier 4
        const Q t78 = t65 + t69;
        const Q t79 = t67 + t63;
        const Q t80 = t65 - t69;
        const Q t81 = t67 - t63;
        // real block of 7, multiplier 4
        const Q t82 = t34 + t36;
        const Q t83 = t82 + t72;
        const Q t84 = t83 + t32;
        const Q t85 = c[2] * t34;
        const Q t86 = t32 - t85;
        const Q t87 = c[0] * t36;
        const Q t88 = t86 + t87;
        const Q t89 = c[1] * t72;
        const Q t90 = t88 - t89;
        const Q t91 = c[3] * t35;
        const Q t92 = c[4] * t37;
        const Q t93 = t91 + t92;
        const Q t94 = c[5] * t73;
        const Q t95 = t93 - t94;
        const Q t96 = c[0] * t34;
        const Q t97 = c[1] * t36;
        const Q t98 = t96 - t97;
        const Q t99 = c[2] * t72;
        const Q t100 = t98 - t99;
        const Q t101 = t100 + t32;
        const Q t102 = c[5] * t37;
        const Q t103 = c[3] * t73;
        const Q t104 = t102 + t103;
        const Q t105 = c[4] * t35;
        const Q t106 = t104 - t105;
        const Q t107 = c[1] * t34;
        const Q t108 = t32 - t107;
        const Q t109 = c[2] * t36;
        const Q t110 = t108 - t109;
        const Q t111 = c[0] * t72;
        const Q t112 = t110 + t111;
        const Q t113 = c[5] * t35;
        const Q t114 = c[3] * t37;
        const Q t115 = t113 + t114;
        const Q t116 = c[4] * t73;
        const Q t117 = t115 + t116;
        // complex block of 7, multiplier 4
        const Q t118 = t42 + t78;
        const Q t119 = t118 + t15;
        const Q t120 = t43 + t79;
        const Q t121 = t120 + t31;
        const Q t122 = c[2] * t78;
        const Q t123 = t46 - t122;
        const Q t124 = t123 + t15;
        const Q t125 = c[4] * t39;
        const Q t126 = c[5] * t41;
        const Q t127 = t125 - t126;
        const Q t128 = c[3] * t81;
        const Q t129 = t127 - t128;
        const Q t130 = t124 + t129;
        const Q t131 = t124 - t129;
        const Q t132 = c[2] * t79;
        const Q t133 = t49 - t132;
        const Q t134 = t133 + t31;
        const Q t135 = c[4] * t38;
        const Q t136 = c[5] * t40;
        const Q t137 = t135 - t136;
        const Q t138 = c[3] * t80;
        const Q t139 = t137 - t138;
        const Q t140 = t134 - t139;
        const Q t141 = t134 + t139;
        const Q t142 = c[2] * t12;
        const Q t143 = t51 - t142;
        const Q t144 = c[0] * t78;
        const Q t145 = t143 + t144;
        const Q t146 = c[5] * t39;
        const Q t147 = c[3] * t41;
        const Q t148 = t146 + t147;
        const Q t149 = c[4] * t81;
        const Q t150 = t148 + t149;
        const Q t151 = t145 + t150;
        const Q t152 = t145 - t150;
        const Q t153 = c[2] * t13;
        const Q t154 = t53 - t153;
        const Q t155 = c[0] * t79;
        const Q t156 = t154 + t155;
        const Q t157 = c[5] * t38;
        const Q t158 = c[3] * t40;
        const Q t159 = t157 + t158;
        const Q t160 = c[4] * t80;
        const Q t161 = t159 + t160;
        const Q t162 = t156 - t161;
        const Q t163 = t156 + t161;
        const Q t164 = c[0] * t12;
        const Q t165 = t55 + t164;
        const Q t166 = c[1] * t78;
        const Q t167 = t165 - t166;
        const Q t168 = c[3] * t39;
        const Q t169 = c[4] * t41;
        const Q t170 = t168 + t169;
        const Q t171 = c[5] * t81;
        const Q t172 = t170 - t171;
        const Q t173 = t167 + t172;
        const Q t174 = t167 - t172;
        const Q t175 = c[0] * t13;
        const Q t176 = t57 + t175;
        const Q t177 = c[1] * t79;
        const Q t178 = t176 - t177;
        const Q t179 = c[3] * t38;
        const Q t180 = c[4] * t40;
        const Q t181 = t179 + t180;
        const Q t182 = c[5] * t80;
        const Q t183 = t181 - t182;
        const Q t184 = t178 - t183;
        const Q t185 = t178 + t183;
        // real block of 7, multiplier 4
        const Q t186 = t58 + t60;
        const Q t187 = t186 + t76;
        const Q t188 = t187 + t33;
        const Q t189 = c[2] * t58;
        const Q t190 = t33 - t189;
        const Q t191 = c[0] * t60;
        const Q t192 = t190 + t191;
        const Q t193 = c[1] * t76;
        const Q t194 = t192 - t193;
        const Q t195 = c[3] * t59;
        const Q t196 = c[4] * t61;
        const Q t197 = t195 + t196;
        const Q t198 = c[5] * t77;
        const Q t199 = t197 - t198;
        const Q t200 = c[0] * t58;
        const Q t201 = c[1] * t60;
        const Q t202 = t200 - t201;
        const Q t203 = c[2] * t76;
        const Q t204 = t202 - t203;
        const Q t205 = t204 + t33;
        const Q t206 = c[5] * t61;
        const Q t207 = c[3] * t77;
        const Q t208 = t206 + t207;
        const Q t209 = c[4] * t59;
        const Q t210 = t208 - t209;
        const Q t211 = c[1] * t58;
        const Q t212 = t33 - t211;
        const Q t213 = c[2] * t60;
        const Q t214 = t212 - t213;
        const Q t215 = c[0] * t76;
        const Q t216 = t214 + t215;
        const Q t217 = c[5] * t59;
        const Q t218 = c[3] * t61;
        const Q t219 = t217 + t218;
        const Q t220 = c[4] * t77;
        const Q t221 = t219 + t220;
        const Q x0_29 = io.pairs(0, 29);
        // complex block of 29, multiplier 2
        const Q t222 = x0_29 + t84;
        const Q t223 = c[32] * t84;
        const Q t224 = x0_29 - t223;
        const Q t225 = c[33] * t188;
        // spectrum block of 2
        const Q t226 = t224 - t225;
        const Q t227 = t224 + t225;
        const Q t228 = shuffled<1, 0, 3, 2>(t131);
        // complex block of 29, multiplier 2
        const Q t229 = c[6] * t228;
        const Q t230 = shuffled<1, 0, 3, 2>(t141);
        const Q t231 = c[7] * t230;
        const Q t232 = t229 + t231;
        const Q t233 = shuffled<1, 0, 3, 2>(t130);
        const Q t234 = c[8] * t233;
        const Q t235 = shuffled<1, 0, 3, 2>(t140);
        const Q t236 = c[9] * t235;
        const Q t237 = t234 + t236;
        // complex block of 2
        const Q t238 = t237 + t232;
        // complex block of 29, multiplier 2
        const Q t239 = Q(-c[6], c[6], -c[6], c[6]) * t230;
        const Q t240 = Q(c[7], -c[7], c[7], -c[7]) * t228;
        const Q t241 = t239 + t240;
        const Q t242 = Q(-c[8], c[8], -c[8], c[8]) * t235;
        const Q t243 = Q(c[9], -c[9], c[9], -c[9]) * t233;
        const Q t244 = t242 + t243;
        // complex block of 2
        const Q t245 = t244 + t241;
        // complex block of 29, multiplier 2
        const Q t246 = c[10] * t205;
        const Q t247 = c[11] * t210;
        const Q t248 = t246 - t247;
        const Q t249 = c[12] * t101;
        const Q t250 = c[13] * t106;
        const Q t251 = t249 - t250;
        // complex block of 2
        const Q t252 = t251 + t248;
        const Q t253 = t251 - t248;
        // complex block of 2
        const Q t254 = t241 - t244;
        const Q t255 = shuffled<0, 5, 2, 7>(t237, t232);
        const Q t256 = shuffled<0, 5, 2, 7>(t232, t237);
        const Q t257 = t255 - t256;
        const Q t258 = flipped<0, 1, 0, 1>(t238);
        // complex block of 2
        const Q t259 = t252 + t258;
        const Q t260 = t252 - t258;
        // complex block of 2
        const Q t261 = t253 - t245;
        const Q t262 = t253 + t245;
        const Q t263 = shuffled<1, 0, 3, 2>(t173);
        // complex block of 29, multiplier 2
        const Q t264 = c[14] * t263;
        const Q t265 = shuffled<1, 0, 3, 2>(t184);
        const Q t266 = c[15] * t265;
        const Q t267 = t264 + t266;
        const Q t268 = shuffled<1, 0, 3, 2>(t174);
        const Q t269 = c[16] * t268;
        const Q t270 = shuffled<1, 0, 3, 2>(t185);
        const Q t271 = c[17] * t270;
        const Q t272 = t269 + t271;
        // complex block of 2
        const Q t273 = t272 + t267;
        // complex block of 29, multiplier 2
        const Q t274 = Q(-c[14], c[14], -c[14], c[14]) * t265;
        const Q t275 = Q(c[15], -c[15], c[15], -c[15]) * t263;
        const Q t276 = t274 + t275;
        const Q t277 = Q(-c[16], c[16], -c[16], c[16]) * t270;
        const Q t278 = Q(c[17], -c[17], c[17], -c[17]) * t268;
        const Q t279 = t277 + t278;
        // complex block of 2
        const Q t280 = t279 + t276;
        // complex block of 29, multiplier 2
        const Q t281 = c[18] * t90;
        const Q t282 = c[19] * t95;
        const Q t283 = t281 + t282;
        const Q t284 = c[20] * t194;
        const Q t285 = c[21] * t199;
        const Q t286 = t284 + t285;
        // complex block of 2
        const Q t287 = t283 - t286;
        const Q t288 = t283 + t286;
        // complex block of 2
        const Q t289 = t279 - t276;
        const Q t290 = shuffled<0, 5, 2, 7>(t267, t272);
        const Q t291 = shuffled<0, 5, 2, 7>(t272, t267);
        const Q t292 = t290 - t291;
        const Q t293 = flipped<1, 0, 1, 0>(t273);
        // complex block of 2
        const Q t294 = t287 + t293;
        const Q t295 = t287 - t293;
        // complex block of 2
        const Q t296 = t288 + t280;
        const Q t297 = t288 - t280;
        // complex block of 29, multiplier 2
        const Q t298 = c[18] * t95;
        const Q t299 = c[19] * t90;
        const Q t300 = t298 - t299;
        const Q t301 = c[20] * t199;
        const Q t302 = c[21] * t194;
        const Q t303 = t301 - t302;
        // complex block of 2
        const Q t304 = t300 - t303;
        const Q t305 = t300 + t303;
        // complex block of 29, multiplier 2
        const Q t306 = c[10] * t210;
        const Q t307 = c[11] * t205;
        const Q t308 = t306 + t307;
        const Q t309 = c[12] * t106;
        const Q t310 = c[13] * t101;
        const Q t311 = t309 + t310;
        // complex block of 2
        const Q t312 = t311 + t308;
        const Q t313 = t311 - t308;
        const Q t314 = shuffled<1, 0, 3, 2>(t119);
        // complex block of 29, multiplier 2
        const Q t315 = c[22] * t314;
        const Q t316 = shuffled<1, 0, 3, 2>(t121);
        const Q t317 = c[23] * t316;
        const Q t318 = t315 + t317;
        const Q t319 = Q(-c[22], c[22], -c[22], c[22]) * t316;
        const Q t320 = Q(c[23], -c[23], c[23], -c[23]) * t314;
        const Q t321 = t319 + t320;
        const Q t322 = flipped<1, 0, 1, 0>(t318);
        // spectrum block of 2
        const Q t323 = t226 + t322;
        // spectrum block of 7, multiplier 4
        const Q t324 = c[1] * t294;
        const Q t325 = t323 - t324;
        const Q t326 = c[2] * t294;
        const Q t327 = t323 - t326;
        // spectrum block of 2
        const Q t328 = t226 - t322;
        // spectrum block of 7, multiplier 4
        const Q t329 = c[1] * t295;
        const Q t330 = t328 - t329;
        const Q t331 = c[2] * t295;
        const Q t332 = t328 - t331;
        // spectrum block of 2
        const Q t333 = t227 + t321;
        // spectrum block of 7, multiplier 4
        const Q t334 = c[1] * t296;
        const Q t335 = t333 - t334;
        const Q t336 = c[2] * t296;
        const Q t337 = t333 - t336;
        // spectrum block of 2
        const Q t338 = t227 - t321;
        // spectrum block of 7, multiplier 4
        const Q t339 = c[1] * t297;
        const Q t340 = t338 - t339;
        const Q t341 = c[2] * t297;
        const Q t342 = t338 - t341;
        // complex block of 2
        const Q t343 = t304 + t289;
        const Q t344 = t304 - t289;
        // complex block of 2
        const Q t345 = t305 - t292;
        const Q t346 = t305 + t292;
        // complex block of 2
        const Q t347 = t312 + t254;
        const Q t348 = t312 - t254;
        // complex block of 2
        const Q t349 = t313 - t257;
        const Q t350 = t313 + t257;
        // spectrum block of 7, multiplier 4
        const Q t351 = t294 + t259;
        const Q t352 = c[0] * t294;
        const Q t353 = c[1] * t259;
        const Q t354 = t352 - t353;
        // spectrum block of 7, multiplier 4
        const Q t355 = t296 + t261;
        const Q t356 = c[0] * t296;
        const Q t357 = c[1] * t261;
        const Q t358 = t356 - t357;
        // spectrum block of 7, multiplier 4
        const Q t359 = t295 + t260;
        const Q t360 = c[0] * t295;
        const Q t361 = c[1] * t260;
        const Q t362 = t360 - t361;
        // spectrum block of 7, multiplier 4
        const Q t363 = t297 + t262;
        const Q t364 = c[0] * t297;
        const Q t365 = c[1] * t262;
        const Q t366 = t364 - t365;
        // complex block of 29, multiplier 2
        const Q t367 = c[24] * t216;
        const Q t368 = c[25] * t221;
        const Q t369 = t367 + t368;
        const Q t370 = c[26] * t112;
        const Q t371 = c[27] * t117;
        const Q t372 = t370 + t371;
        // complex block of 2
        const Q t373 = t372 + t369;
        const Q t374 = t372 - t369;
        // complex block of 29, multiplier 2
        const Q t375 = c[25] * t216;
        const Q t376 = c[24] * t221;
        const Q t377 = t375 - t376;
        const Q t378 = shuffled<1, 0, 3, 2>(t162);
        const Q t379 = Q(-c[28], c[28], -c[28], c[28]) * t378;
        const Q t380 = shuffled<1, 0, 3, 2>(t151);
        const Q t381 = Q(c[29], -c[29], c[29], -c[29]) * t380;
        const Q t382 = t379 + t381;
        const Q t383 = shuffled<1, 0, 3, 2>(t152);
        const Q t384 = c[30] * t383;
        const Q t385 = shuffled<1, 0, 3, 2>(t163);
        const Q t386 = c[31] * t385;
        const Q t387 = t384 + t386;
        const Q t388 = flipped<1, 0, 1, 0>(t387);
        // complex block of 2
        const Q t389 = t388 + t382;
        const Q t390 = flipped<0, 1, 0, 1>(t382);
        const Q t391 = t387 + t390;
        // complex block of 29, multiplier 2
        const Q t392 = c[29] * t378;
        const Q t393 = c[28] * t380;
        const Q t394 = t392 + t393;
        const Q t395 = Q(-c[31], c[31], -c[31], c[31]) * t383;
        const Q t396 = Q(c[30], -c[30], c[30], -c[30]) * t385;
        const Q t397 = t395 + t396;
        const Q t398 = flipped<0, 1, 0, 1>(t397);
        // complex block of 2
        const Q t399 = t394 + t398;
        const Q t400 = t394 - t398;
        // complex block of 29, multiplier 2
        const Q t401 = c[26] * t117;
        const Q t402 = c[27] * t112;
        const Q t403 = t401 - t402;
        // complex block of 2
        const Q t404 = t403 - t377;
        const Q t405 = flipped<1, 0, 1, 0>(t399);
        // complex block of 2
        const Q t406 = t404 + t405;
        const Q t407 = t404 - t405;
        // complex block of 2
        const Q t408 = t403 + t377;
        const Q t409 = flipped<0, 1, 0, 1>(t391);
        // complex block of 2
        const Q t410 = t408 + t409;
        const Q t411 = t408 - t409;
        // complex block of 2
        const Q t412 = t373 + t389;
        const Q t413 = t373 - t389;
        const Q t414 = flipped<0, 1, 0, 1>(t400);
        // complex block of 2
        const Q t415 = t374 + t414;
        const Q t416 = t374 - t414;
        // spectrum block of 7, multiplier 4
        const Q t417 = t351 + t412;
        const Q t418 = t417 + t323;
        const Q t419 = c[2] * t412;
        const Q t420 = t354 - t419;
        const Q t421 = t420 + t323;
        const Q t422 = c[4] * t343;
        const Q t423 = c[5] * t347;
        const Q t424 = t422 + t423;
        const Q t425 = c[3] * t406;
        const Q t426 = t424 + t425;
        const Q t427 = c[2] * t259;
        const Q t428 = t325 - t427;
        const Q t429 = c[0] * t412;
        const Q t430 = t428 + t429;
        const Q t431 = c[5] * t343;
        const Q t432 = c[3] * t347;
        const Q t433 = t431 - t432;
        const Q t434 = c[4] * t406;
        const Q t435 = t433 - t434;
        const Q t436 = c[0] * t259;
        const Q t437 = t327 + t436;
        const Q t438 = c[1] * t412;
        const Q t439 = t437 - t438;
        const Q t440 = c[3] * t343;
        const Q t441 = c[4] * t347;
        const Q t442 = t440 - t441;
        const Q t443 = c[5] * t406;
        const Q t444 = t442 + t443;
        // spectrum block of 7, multiplier 4
        const Q t445 = c[2] * t261;
        const Q t446 = t335 - t445;
        const Q t447 = c[0] * t415;
        const Q t448 = t446 + t447;
        const Q t449 = c[5] * t345;
        const Q t450 = c[3] * t349;
        const Q t451 = t449 - t450;
        const Q t452 = c[4] * t410;
        const Q t453 = t451 - t452;
        const Q t454 = c[0] * t261;
        const Q t455 = t337 + t454;
        const Q t456 = c[1] * t415;
        const Q t457 = t455 - t456;
        const Q t458 = c[3] * t345;
        const Q t459 = c[4] * t349;
        const Q t460 = t458 - t459;
        const Q t461 = c[5] * t410;
        const Q t462 = t460 + t461;
        // spectrum block of 7, multiplier 4
        const Q t463 = t359 + t413;
        const Q t464 = t463 + t328;
        const Q t465 = c[2] * t413;
        const Q t466 = t362 - t465;
        const Q t467 = t466 + t328;
        const Q t468 = c[4] * t344;
        const Q t469 = c[5] * t348;
        const Q t470 = t468 + t469;
        const Q t471 = c[3] * t407;
        const Q t472 = t470 + t471;
        const Q t473 = c[2] * t260;
        const Q t474 = t330 - t473;
        const Q t475 = c[0] * t413;
        const Q t476 = t474 + t475;
        const Q t477 = c[5] * t344;
        const Q t478 = c[3] * t348;
        const Q t479 = t477 - t478;
        const Q t480 = c[4] * t407;
        const Q t481 = t479 - t480;
        const Q t482 = c[0] * t260;
        const Q t483 = t332 + t482;
        const Q t484 = c[1] * t413;
        const Q t485 = t483 - t484;
        const Q t486 = c[3] * t344;
        const Q t487 = c[4] * t348;
        const Q t488 = t486 - t487;
        const Q t489 = c[5] * t407;
        const Q t490 = t488 + t489;
        // spectrum block of 7, multiplier 4
        const Q t491 = c[2] * t262;
        const Q t492 = t340 - t491;
        const Q t493 = c[0] * t416;
        const Q t494 = t492 + t493;
        const Q t495 = c[5] * t346;
        const Q t496 = c[3] * t350;
        const Q t497 = t495 - t496;
        const Q t498 = c[4] * t411;
        const Q t499 = t497 - t498;
        const Q t500 = c[0] * t262;
        const Q t501 = t342 + t500;
        const Q t502 = c[1] * t416;
        const Q t503 = t501 - t502;
        const Q t504 = c[3] * t346;
        const Q t505 = c[4] * t350;
        const Q t506 = t504 - t505;
        const Q t507 = c[5] * t411;
        const Q t508 = t506 + t507;
        // spectrum block of 7, multiplier 4
        const Q t509 = t421 - t426;
        // spectrum block of 7, multiplier 4
        const Q t510 = t503 + t508;
        const Q t511 = shuffled<0, 1, 4, 5>(t510, t509);
        const Q t512 = shuffled<2, 3, 6, 7>(t510, t509);
        // complex block of 2
        const Q t513 = t511 + t512;
        const Q t514 = t511 - t512;
        const Q t515 = shuffled<0, 1, 6, 7>(t513, t514);
        io.pairs(16, 17, t515);
        const Q t516 = shuffled<0, 1, 6, 7>(t514, t513);
        io.pairs(45, 46, t516);
        // spectrum block of 7, multiplier 4
        const Q t517 = t421 + t426;
        // spectrum block of 7, multiplier 4
        const Q t518 = t485 + t490;
        const Q t519 = shuffled<0, 1, 4, 5>(t518, t517);
        const Q t520 = shuffled<2, 3, 6, 7>(t518, t517);
        // complex block of 2
        const Q t521 = t519 + t520;
        const Q t522 = t519 - t520;
        const Q t523 = shuffled<0, 1, 6, 7>(t521, t522);
        io.pairs(18, 19, t523);
        const Q t524 = shuffled<0, 1, 6, 7>(t522, t521);
        io.pairs(47, 48, t524);
        // spectrum block of 7, multiplier 4
        const Q t525 = t430 - t435;
        // spectrum block of 7, multiplier 4
        const Q t526 = t476 - t481;
        const Q t527 = shuffled<0, 1, 4, 5>(t525, t526);
        const Q t528 = shuffled<2, 3, 6, 7>(t525, t526);
        // complex block of 2
        const Q t529 = t527 + t528;
        const Q t530 = t527 - t528;
        const Q t531 = shuffled<0, 1, 6, 7>(t529, t530);
        io.pairs(14, 15, t531);
        const Q t532 = shuffled<0, 1, 6, 7>(t530, t529);
        io.pairs(43, 44, t532);
        // spectrum block of 7, multiplier 4
        const Q t533 = t430 + t435;
        // spectrum block of 7, multiplier 4
        const Q t534 = t494 + t499;
        const Q t535 = shuffled<0, 1, 4, 5>(t534, t533);
        const Q t536 = shuffled<2, 3, 6, 7>(t534, t533);
        // complex block of 2
        const Q t537 = t535 + t536;
        const Q t538 = t535 - t536;
        const Q t539 = shuffled<0, 1, 6, 7>(t537, t538);
        io.pairs(20, 21, t539);
        const Q t540 = shuffled<0, 1, 6, 7>(t538, t537);
        io.pairs(49, 50, t540);
        // spectrum block of 7, multiplier 4
        const Q t541 = t439 - t444;
        const Q t542 = shuffled<0, 1, 4, 5>(t418, t541);
        const Q t543 = shuffled<2, 3, 6, 7>(t418, t541);
        // complex block of 2
        const Q t544 = t542 + t543;
        const Q t545 = t542 - t543;
        const Q t546 = shuffled<0, 1, 6, 7>(t544, t545);
        io.pairs(2, 3, t546);
        const Q t547 = shuffled<0, 1, 6, 7>(t545, t544);
        io.pairs(31, 32, t547);
        // spectrum block of 7, multiplier 4
        const Q t548 = t439 + t444;
        // spectrum block of 7, multiplier 4
        const Q t549 = t467 + t472;
        const Q t550 = shuffled<0, 1, 4, 5>(t549, t548);
        const Q t551 = shuffled<2, 3, 6, 7>(t549, t548);
        // complex block of 2
        const Q t552 = t550 + t551;
        const Q t553 = t550 - t551;
        const Q t554 = shuffled<0, 1, 6, 7>(t552, t553);
        io.pairs(10, 11, t554);
        const Q t555 = shuffled<0, 1, 6, 7>(t553, t552);
        io.pairs(39, 40, t555);
        // spectrum block of 7, multiplier 4
        const Q t556 = t448 - t453;
        // spectrum block of 7, multiplier 4
        const Q t557 = t503 - t508;
        const Q t558 = shuffled<0, 1, 4, 5>(t556, t557);
        const Q t559 = shuffled<2, 3, 6, 7>(t556, t557);
        // complex block of 2
        const Q t560 = t558 + t559;
        const Q t561 = t558 - t559;
        const Q t562 = shuffled<0, 1, 6, 7>(t560, t561);
        io.pairs(6, 7, t562);
        const Q t563 = shuffled<0, 1, 6, 7>(t561, t560);
        io.pairs(35, 36, t563);
        // spectrum block of 7, multiplier 4
        const Q t564 = t448 + t453;
        // spectrum block of 7, multiplier 4
        const Q t565 = t476 + t481;
        const Q t566 = shuffled<0, 1, 4, 5>(t565, t564);
        const Q t567 = shuffled<2, 3, 6, 7>(t565, t564);
        // complex block of 2
        const Q t568 = t566 + t567;
        const Q t569 = t566 - t567;
        const Q t570 = shuffled<0, 1, 6, 7>(t568, t569);
        io.pairs(8, 9, t570);
        const Q t571 = shuffled<0, 1, 6, 7>(t569, t568);
        io.pairs(37, 38, t571);
        // spectrum block of 7, multiplier 4
        const Q t572 = t457 - t462;
        // spectrum block of 7, multiplier 4
        const Q t573 = t494 - t499;
        const Q t574 = shuffled<0, 1, 4, 5>(t572, t573);
        const Q t575 = shuffled<2, 3, 6, 7>(t572, t573);
        // complex block of 2
        const Q t576 = t574 + t575;
        const Q t577 = t574 - t575;
        const Q t578 = shuffled<0, 1, 6, 7>(t576, t577);
        io.pairs(22, 23, t578);
        const Q t579 = shuffled<0, 1, 6, 7>(t577, t576);
        io.pairs(51, 52, t579);
        // spectrum block of 7, multiplier 4
        const Q t580 = t457 + t462;
        // spectrum block of 7, multiplier 4
        const Q t581 = t467 - t472;
        const Q t582 = shuffled<0, 1, 4, 5>(t581, t580);
        const Q t583 = shuffled<2, 3, 6, 7>(t581, t580);
        // complex block of 2
        const Q t584 = t582 + t583;
        const Q t585 = t582 - t583;
        const Q t586 = shuffled<0, 1, 6, 7>(t584, t585);
        io.pairs(12, 13, t586);
        const Q t587 = shuffled<0, 1, 6, 7>(t585, t584);
        io.pairs(41, 42, t587);
        // spectrum block of 7, multiplier 4
        const Q t588 = t485 - t490;
        const Q t589 = shuffled<0, 1, 4, 5>(t588, t464);
        const Q t590 = shuffled<2, 3, 6, 7>(t588, t464);
        // complex block of 2
        const Q t591 = t589 + t590;
        const Q t592 = t589 - t590;
        const Q t593 = shuffled<0, 1, 6, 7>(t591, t592);
        io.pairs(26, 27, t593);
        const Q t594 = shuffled<0, 1, 6, 7>(t592, t591);
        io.pairs(55, 56, t594);
        // spectrum block of 7, multiplier 4
        const Q t595 = t355 + t415;
        const Q t596 = t595 + t333;
        const Q t597 = c[2] * t415;
        const Q t598 = t358 - t597;
        const Q t599 = t598 + t333;
        const Q t600 = c[4] * t345;
        const Q t601 = c[5] * t349;
        const Q t602 = t600 + t601;
        const Q t603 = c[3] * t410;
        const Q t604 = t602 + t603;
        const Q t605 = t599 - t604;
        const P t606 = part<0>(t605);
        const P t607 = part<1>(t605);
        // complex block of 2
        const P t608 = t606 + t607;
        io.pair(28, t608);
        const P t609 = t606 - t607;
        io.pair(57, t609);
        // spectrum block of 7, multiplier 4
        const Q t610 = t599 + t604;
        const Q t611 = shuffled<0, 1, 4, 5>(t610, t596);
        const Q t612 = shuffled<2, 3, 6, 7>(t610, t596);
        // complex block of 2
        const Q t613 = t611 + t612;
        const Q t614 = t611 - t612;
        const Q t615 = shuffled<0, 1, 6, 7>(t613, t614);
        io.pairs(4, 5, t615);
        const Q t616 = shuffled<0, 1, 6, 7>(t614, t613);
        io.pairs(33, 34, t616);
        // spectrum block of 7, multiplier 4
        const Q t617 = t363 + t416;
        const Q t618 = t617 + t338;
        const Q t619 = c[2] * t416;
        const Q t620 = t366 - t619;
        const Q t621 = t620 + t338;
        const Q t622 = c[4] * t346;
        const Q t623 = c[5] * t350;
        const Q t624 = t622 + t623;
        const Q t625 = c[3] * t411;
        const Q t626 = t624 + t625;
        const Q t627 = t621 - t626;
        const Q t628 = shuffled<0, 1, 4, 5>(t222, t627);
        const Q t629 = shuffled<2, 3, 6, 7>(t222, t627);
        // complex block of 2
        const Q t630 = t628 + t629;
        const Q t631 = t628 - t629;
        const Q t632 = shuffled<0, 1, 6, 7>(t630, t631);
        io.pairs(0, 1, t632);
        const Q t633 = shuffled<0, 1, 6, 7>(t631, t630);
        io.pairs(29, 30, t633);
        // spectrum block of 7, multiplier 4
        const Q t634 = t621 + t626;
        const Q t635 = shuffled<0, 1, 4, 5>(t618, t634);
        const Q t636 = shuffled<2, 3, 6, 7>(t618, t634);
        // complex block of 2
        const Q t637 = t635 + t636;
        const Q t638 = t635 - t636;
        const Q t639 = shuffled<0, 1, 6, 7>(t637, t638);
        io.pairs(24, 25, t639);
        const Q t640 = shuffled<0, 1, 6, 7>(t638, t637);
        io.pairs(53, 54, t640);
    }
};

}  // namespace zulg
