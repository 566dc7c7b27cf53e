// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 62.
// Forward DFT of 62 real points, prime-factor 31, 2; two lanes to a register.
// 182 sums, 166 differences, 192 products of registers, which do the 1140 steps of the graph, those with
// `scale` included; 43 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<62> {
    static constexpr int steps = 1140;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.3386491040641593,  // c[6]: -Q[1] of 31
        0.15196895108646355,  // c[7]: -P[1] of 31
        0.21884316352804659,  // c[8]: Q[2] of 31
        0.29980901846811486,  // c[9]: -P[2] of 31
        0.019498333867134416,  // c[10]: -Q[3] of 31
        0.37067181273221134,  // c[11]: -P[3] of 31
        0.3665614991633792,  // c[12]: P[4] of 31
        0.05839901633481273,  // c[13]: Q[4] of 31
        0.2970284107916672,  // c[14]: P[6] of 31
        0.2226025627892778,  // c[15]: Q[6] of 31
        0.28075102554360776,  // c[16]: -Q[7] of 31
        0.24280988331200667,  // c[17]: -P[7] of 31
        0.35531525594489755,  // c[18]: P[8] of 31
        0.1073724670043011,  // c[19]: -Q[8] of 31
        0.37108682864596165,  // c[20]: P[9] of 31
        0.008505491359144196,  // c[21]: -Q[9] of 31
        0.06530829340975558,  // c[22]: P[11] of 31
        0.36539376648991023,  // c[23]: Q[11] of 31
        0.10130252550848418,  // c[24]: Q[12] of 31
        0.35709323166839874,  // c[25]: -P[12] of 31
        0.1674782402040115,  // c[26]: -P[13] of 31
        0.3312534027537607,  // c[27]: Q[13] of 31
        0.2485676599132395,  // c[28]: P[14] of 31
        0.27566627690567064,  // c[29]: Q[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.26685240283098827,  // c[31]: P[5] of 31
        0.2580069240952765,  // c[32]: -Q[5] of 31
        0.3417205692768941,  // c[33]: P[10] of 31
        0.1449304326594425,  // c[34]: Q[10] of 31
        0.1255134364645471,  // c[35]: sin 2 pi 1/3 times Q[10] of 31
        0.2959386939894704,  // c[36]: sin 2 pi 1/3 times P[10] of 31
        0.1855921454276674,  // c[37]: -beta of 31
        0.23110095991255428,  // c[38]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[39]: sin 2 pi 1/3 times -Q[5] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x50_19 = io.in(50, 19);
        const P x10_41 = io.in(10, 41);
        // real block of 3
        const P t0 = x50_19 + x10_41;
        const P t1 = x50_19 - x10_41;
        const P x2_33 = io.in(2, 33);
        const P t2 = t0 + x2_33;
        const P t3 = c[4] * t0;
        const P t4 = x2_33 - t3;
        const P x48_17 = io.in(48, 17);
        const P x22_53 = io.in(22, 53);
        // real block of 3
        const P t5 = x48_17 + x22_53;
        const P t6 = x48_17 - x22_53;
        const P x54_23 = io.in(54, 23);
        const P t7 = t5 + x54_23;
        const P t8 = c[4] * t5;
        const P t9 = x54_23 - t8;
        const P x56_25 = io.in(56, 25);
        const P x36_5 = io.in(36, 5);
        // real block of 3
        const P t10 = x56_25 + x36_5;
        const P t11 = x56_25 - x36_5;
        const P x32_1 = io.in(32, 1);
        const P t12 = t10 + x32_1;
        const P t13 = c[4] * t10;
        const P t14 = x32_1 - t13;
        const P x24_55 = io.in(24, 55);
        const P x42_11 = io.in(42, 11);
        // real block of 3
        const P t15 = x24_55 + x42_11;
        const P t16 = x24_55 - x42_11;
        const P x58_27 = io.in(58, 27);
        const P t17 = t15 + x58_27;
        const P t18 = c[4] * t15;
        const P t19 = x58_27 - t18;
        const P x28_59 = io.in(28, 59);
        const P x18_49 = io.in(18, 49);
        // real block of 3
        const P t20 = x28_59 + x18_49;
        const P t21 = x28_59 - x18_49;
        const P x16_47 = io.in(16, 47);
        const P t22 = t20 + x16_47;
        const P t23 = c[4] * t20;
        const P t24 = x16_47 - t23;
        const P x12_43 = io.in(12, 43);
        const P x52_21 = io.in(52, 21);
        // real block of 3
        const P t25 = x12_43 + x52_21;
        const P t26 = x12_43 - x52_21;
        const P x60_29 = io.in(60, 29);
        const P t27 = t25 + x60_29;
        const P t28 = c[4] * t25;
        const P t29 = x60_29 - t28;
        const P x14_45 = io.in(14, 45);
        const P x40_9 = io.in(40, 9);
        // real block of 3
        const P t30 = x14_45 + x40_9;
        const P t31 = x14_45 - x40_9;
        const P x8_39 = io.in(8, 39);
        const P t32 = t30 + x8_39;
        const P t33 = c[4] * t30;
        const P t34 = x8_39 - t33;
        const P x6_37 = io.in(6, 37);
        const P x26_57 = io.in(26, 57);
        // real block of 3
        const P t35 = x6_37 + x26_57;
        const P t36 = x6_37 - x26_57;
        const P x30_61 = io.in(30, 61);
        const P t37 = t35 + x30_61;
        const P t38 = c[4] * t35;
        const P t39 = x30_61 - t38;
        const P x38_7 = io.in(38, 7);
        const P x20_51 = io.in(20, 51);
        // real block of 3
        const P t40 = x38_7 + x20_51;
        const P t41 = x38_7 - x20_51;
        const P x4_35 = io.in(4, 35);
        const P t42 = t40 + x4_35;
        const P t43 = c[4] * t40;
        const P t44 = x4_35 - t43;
        const P x34_3 = io.in(34, 3);
        const P x44_13 = io.in(44, 13);
        // real block of 3
        const P t45 = x34_3 + x44_13;
        const P t46 = x34_3 - x44_13;
        const P x46_15 = io.in(46, 15);
        const P t47 = t45 + x46_15;
        const P t48 = c[4] * t45;
        const P t49 = x46_15 - t48;
        // real block of 2
        const P t50 = t2 + t27;
        const P t51 = t2 - t27;
        // real block of 2
        const P t52 = t12 + t37;
        const P t53 = t12 - t37;
        // real block of 2
        const P t54 = t22 + t47;
        const P t55 = t22 - t47;
        // real block of 2
        const P t56 = t32 + t7;
        const P t57 = t32 - t7;
        // real block of 2
        const P t58 = t42 + t17;
        const P t59 = t42 - t17;
        // real block of 5
        const P t60 = t52 + t58;
        const P t61 = t52 - t58;
        const P t62 = t56 + t54;
        const P t63 = t56 - t54;
        const P t64 = t60 + t62;
        const P t65 = t64 + t50;
        const P t66 = c[0] * t60;
        const P t67 = c[1] * t62;
        const P t68 = t66 - t67;
        const P t69 = t68 + t50;
        const P t70 = c[2] * t63;
        const P t71 = c[3] * t61;
        const P t72 = t70 - t71;
        const P t73 = c[1] * t60;
        const P t74 = t50 - t73;
        const P t75 = c[0] * t62;
        const P t76 = t74 + t75;
        const P t77 = c[2] * t61;
        const P t78 = c[3] * t63;
        const P t79 = t77 + t78;
        // real block of 5
        const P t80 = t53 + t59;
        const P t81 = t53 - t59;
        const P t82 = t57 + t55;
        const P t83 = t57 - t55;
        const P t84 = t80 + t82;
        const P t85 = t84 + t51;
        const P t86 = c[0] * t80;
        const P t87 = c[1] * t82;
        const P t88 = t86 - t87;
        const P t89 = t88 + t51;
        const P t90 = c[2] * t83;
        const P t91 = c[3] * t81;
        const P t92 = t90 - t91;
        const P t93 = c[1] * t80;
        const P t94 = t51 - t93;
        const P t95 = c[0] * t82;
        const P t96 = t94 + t95;
        const P t97 = c[2] * t81;
        const P t98 = c[3] * t83;
        const P t99 = t97 + t98;
        // complex block of 2
        const P t100 = t4 + t29;
        // real block of 3
        const P t101 = c[5] * t1;
        // real block of 3
        const P t102 = c[5] * t26;
        // complex block of 2
        const P t103 = t101 + t102;
        const P t104 = t4 - t29;
        const P t105 = t102 - t101;
        // complex block of 2
        const P t106 = t14 + t39;
        // real block of 3
        const P t107 = c[5] * t11;
        // real block of 3
        const P t108 = c[5] * t36;
        // complex block of 2
        const P t109 = t107 + t108;
        const P t110 = t14 - t39;
        const P t111 = t108 - t107;
        // complex block of 2
        const P t112 = t24 + t49;
        // real block of 3
        const P t113 = c[5] * t21;
        // real block of 3
        const P t114 = c[5] * t46;
        // complex block of 2
        const P t115 = t113 + t114;
        const P t116 = t24 - t49;
        const P t117 = t114 - t113;
        // complex block of 2
        const P t118 = t34 + t9;
        // real block of 3
        const P t119 = c[5] * t31;
        // real block of 3
        const P t120 = c[5] * t6;
        // complex block of 2
        const P t121 = t119 + t120;
        const P t122 = t34 - t9;
        const P t123 = t120 - t119;
        // complex block of 2
        const P t124 = t44 + t19;
        // real block of 3
        const P t125 = c[5] * t41;
        // real block of 3
        const P t126 = c[5] * t16;
        // complex block of 2
        const P t127 = t125 + t126;
        const P t128 = t44 - t19;
        const P t129 = t126 - t125;
        // complex block of 5
        const P t130 = t106 + t124;
        const P t131 = t109 + t127;
        const P t132 = t106 - t124;
        const P t133 = t127 - t109;
        const P t134 = t118 + t112;
        const P t135 = t121 + t115;
        const P t136 = t118 - t112;
        const P t137 = t115 - t121;
        const P t138 = t130 + t134;
        const P t139 = t131 + t135;
        const P t140 = t138 + t100;
        const P t141 = t139 + t103;
        const P t142 = c[0] * t130;
        const P t143 = c[1] * t134;
        const P t144 = t142 - t143;
        const P t145 = t144 + t100;
        const P t146 = c[0] * t131;
        const P t147 = t103 + t146;
        const P t148 = c[1] * t135;
        const P t149 = t148 - t147;
        const P t150 = c[3] * t132;
        const P t151 = c[2] * t136;
        const P t152 = t150 - t151;
        const P t153 = c[3] * t133;
        const P t154 = c[2] * t137;
        const P t155 = t153 - t154;
        const P t156 = t145 + t155;
        const P t157 = t149 - t152;
        const P t158 = t145 - t155;
        const P t159 = t149 + t152;
        const P t160 = c[1] * t130;
        const P t161 = t100 - t160;
        const P t162 = c[0] * t134;
        const P t163 = t161 + t162;
        const P t164 = c[1] * t131;
        const P t165 = c[0] * t135;
        const P t166 = t164 - t165;
        const P t167 = t166 - t103;
        const P t168 = c[2] * t132;
        const P t169 = c[3] * t136;
        const P t170 = t168 + t169;
        const P t171 = c[2] * t133;
        const P t172 = c[3] * t137;
        const P t173 = t171 + t172;
        const P t174 = t163 + t173;
        const P t175 = t167 - t170;
        const P t176 = t163 - t173;
        const P t177 = t167 + t170;
        // complex block of 5
        const P t178 = t110 + t128;
        const P t179 = t111 + t129;
        const P t180 = t110 - t128;
        const P t181 = t111 - t129;
        const P t182 = t122 + t116;
        const P t183 = t123 + t117;
        const P t184 = t122 - t116;
        const P t185 = t123 - t117;
        const P t186 = t178 + t182;
        const P t187 = t179 + t183;
        const P t188 = t186 + t104;
        const P t189 = t187 + t105;
        const P t190 = c[0] * t178;
        const P t191 = c[1] * t182;
        const P t192 = t190 - t191;
        const P t193 = t192 + t104;
        const P t194 = c[0] * t179;
        const P t195 = c[1] * t183;
        const P t196 = t194 - t195;
        const P t197 = t196 + t105;
        const P t198 = c[3] * t180;
        const P t199 = c[2] * t184;
        const P t200 = t198 - t199;
        const P t201 = c[3] * t181;
        const P t202 = c[2] * t185;
        const P t203 = t201 - t202;
        const P t204 = t193 + t203;
        const P t205 = t197 - t200;
        const P t206 = t193 - t203;
        const P t207 = t197 + t200;
        const P t208 = c[1] * t178;
        const P t209 = t104 - t208;
        const P t210 = c[0] * t182;
        const P t211 = t209 + t210;
        const P t212 = c[1] * t179;
        const P t213 = t105 - t212;
        const P t214 = c[0] * t183;
        const P t215 = t213 + t214;
        const P t216 = c[2] * t180;
        const P t217 = c[3] * t184;
        const P t218 = t216 + t217;
        const P t219 = c[2] * t181;
        const P t220 = c[3] * t185;
        const P t221 = t219 + t220;
        const P t222 = t211 + t221;
        const P t223 = t215 - t218;
        const P t224 = t211 - t221;
        const P t225 = t215 + t218;
        const P x0_31 = io.in(0, 31);
        // real block of 31, multiplier 2
        const P t226 = x0_31 + t65;
        const P t227 = c[30] * t65;
        const P t228 = x0_31 - t227;
        const P t229 = c[6] * t205;
        const P t230 = c[7] * t204;
        const P t231 = t229 - t230;
        const P t232 = c[7] * t205;
        const P t233 = c[6] * t204;
        const P t234 = t232 + t233;
        const P t235 = c[8] * t177;
        const P t236 = c[9] * t176;
        const P t237 = t235 - t236;
        const P t238 = c[9] * t177;
        const P t239 = c[8] * t176;
        const P t240 = t238 + t239;
        const P t241 = c[10] * t99;
        const P t242 = c[11] * t96;
        const P t243 = t241 - t242;
        const P t244 = c[11] * t99;
        const P t245 = c[10] * t96;
        const P t246 = t244 + t245;
        const P t247 = c[12] * t158;
        const P t248 = c[13] * t159;
        const P t249 = t247 - t248;
        const P t250 = c[12] * t159;
        const P t251 = c[13] * t158;
        const P t252 = t250 + t251;
        const P t253 = c[31] * t189;
        const P t254 = c[32] * t188;
        const P t255 = t253 + t254;
        const P t256 = c[14] * t69;
        const P t257 = c[15] * t72;
        const P t258 = t256 - t257;
        const P t259 = c[14] * t72;
        const P t260 = c[15] * t69;
        const P t261 = t259 + t260;
        const P t262 = c[16] * t223;
        const P t263 = c[17] * t222;
        const P t264 = t262 - t263;
        const P t265 = c[17] * t223;
        const P t266 = c[16] * t222;
        const P t267 = t265 + t266;
        const P t268 = c[18] * t174;
        const P t269 = c[19] * t175;
        const P t270 = t268 - t269;
        const P t271 = c[18] * t175;
        const P t272 = c[19] * t174;
        const P t273 = t271 + t272;
        const P t274 = c[20] * t89;
        const P t275 = c[21] * t92;
        const P t276 = t274 - t275;
        const P t277 = c[20] * t92;
        const P t278 = c[21] * t89;
        const P t279 = t277 + t278;
        const P t280 = c[33] * t140;
        const P t281 = c[34] * t141;
        const P t282 = t280 + t281;
        const P t283 = c[22] * t206;
        const P t284 = c[23] * t207;
        const P t285 = t283 + t284;
        const P t286 = c[23] * t206;
        const P t287 = c[22] * t207;
        const P t288 = t286 - t287;
        const P t289 = c[24] * t79;
        const P t290 = c[25] * t76;
        const P t291 = t289 - t290;
        const P t292 = c[25] * t79;
        const P t293 = c[24] * t76;
        const P t294 = t292 + t293;
        const P t295 = c[26] * t224;
        const P t296 = c[27] * t225;
        const P t297 = t295 + t296;
        const P t298 = c[27] * t224;
        const P t299 = c[26] * t225;
        const P t300 = t298 - t299;
        const P t301 = c[28] * t156;
        const P t302 = c[29] * t157;
        const P t303 = t301 + t302;
        const P t304 = c[29] * t156;
        const P t305 = c[28] * t157;
        const P t306 = t304 - t305;
        // spectrum block of 3, multiplier 2
        const P t307 = t282 + t228;
        const P t308 = c[4] * t282;
        const P t309 = t228 - t308;
        const P t310 = c[35] * t140;
        const P t311 = c[36] * t141;
        const P t312 = t310 - t311;
        const P t313 = t309 - t312;
        const P t314 = t309 + t312;
        // complex block of 3, multiplier 2
        const P t315 = t306 + t252;
        const P t316 = t303 + t249;
        const P t317 = t252 - t306;
        const P t318 = t303 - t249;
        const P t319 = t261 - t315;
        const P t320 = t316 + t258;
        const P t321 = c[4] * t315;
        const P t322 = t321 + t261;
        const P t323 = c[4] * t316;
        const P t324 = t258 - t323;
        const P t325 = c[5] * t318;
        const P t326 = t322 + t325;
        const P t327 = c[5] * t317;
        const P t328 = t324 - t327;
        const P t329 = t322 - t325;
        const P t330 = t324 + t327;
        // complex block of 3, multiplier 2
        const P t331 = t273 + t240;
        const P t332 = t270 + t237;
        const P t333 = t273 - t240;
        const P t334 = t270 - t237;
        const P t335 = t331 + t294;
        const P t336 = t332 + t291;
        const P t337 = c[4] * t331;
        const P t338 = t294 - t337;
        const P t339 = c[4] * t332;
        const P t340 = t291 - t339;
        const P t341 = c[5] * t334;
        const P t342 = t338 + t341;
        const P t343 = c[5] * t333;
        const P t344 = t340 - t343;
        const P t345 = t338 - t341;
        const P t346 = t340 + t343;
        // spectrum block of 5, multiplier 3
        const P t347 = t320 + t336;
        const P t348 = t347 + t307;
        const P t349 = c[0] * t320;
        const P t350 = c[1] * t336;
        const P t351 = t349 - t350;
        const P t352 = t351 + t307;
        const P t353 = c[3] * t319;
        const P t354 = c[2] * t335;
        const P t355 = t353 + t354;
        const P t356 = t352 - t355;
        const P t357 = t352 + t355;
        const P t358 = c[1] * t320;
        const P t359 = t307 - t358;
        const P t360 = c[0] * t336;
        const P t361 = t359 + t360;
        const P t362 = c[2] * t319;
        const P t363 = c[3] * t335;
        const P t364 = t362 - t363;
        const P t365 = t361 - t364;
        const P t366 = t361 + t364;
        // spectrum block of 5, multiplier 3
        const P t367 = t330 + t346;
        const P t368 = t367 + t314;
        const P t369 = c[0] * t330;
        const P t370 = c[1] * t346;
        const P t371 = t369 - t370;
        const P t372 = t371 + t314;
        const P t373 = c[3] * t329;
        const P t374 = c[2] * t345;
        const P t375 = t373 + t374;
        const P t376 = t372 - t375;
        const P t377 = t372 + t375;
        const P t378 = c[1] * t330;
        const P t379 = t314 - t378;
        const P t380 = c[0] * t346;
        const P t381 = t379 + t380;
        const P t382 = c[2] * t329;
        const P t383 = c[3] * t345;
        const P t384 = t382 - t383;
        const P t385 = t381 - t384;
        const P t386 = t381 + t384;
        // spectrum block of 5, multiplier 3
        const P t387 = t328 + t344;
        const P t388 = t387 + t313;
        const P t389 = c[0] * t328;
        const P t390 = c[1] * t344;
        const P t391 = t389 - t390;
        const P t392 = t391 + t313;
        const P t393 = c[3] * t326;
        const P t394 = c[2] * t342;
        const P t395 = t393 + t394;
        const P t396 = t392 - t395;
        const P t397 = t392 + t395;
        const P t398 = c[1] * t328;
        const P t399 = t313 - t398;
        const P t400 = c[0] * t344;
        const P t401 = t399 + t400;
        const P t402 = c[2] * t326;
        const P t403 = c[3] * t342;
        const P t404 = t402 - t403;
        const P t405 = t401 - t404;
        const P t406 = t401 + t404;
        // real block of 31, multiplier 2
        const P t407 = c[37] * t85;
        // spectrum block of 3
        const P t408 = t255 + t407;
        const P t409 = c[4] * t255;
        const P t410 = t409 - t407;
        const P t411 = c[38] * t188;
        const P t412 = c[39] * t189;
        const P t413 = t411 - t412;
        const P t414 = t410 - t413;
        const P t415 = t410 + t413;
        // complex block of 3
        const P t416 = t231 + t285;
        const P t417 = t288 - t234;
        const P t418 = t285 - t231;
        const P t419 = t234 + t288;
        const P t420 = t276 - t416;
        const P t421 = t417 - t279;
        const P t422 = c[4] * t416;
        const P t423 = t422 + t276;
        const P t424 = c[4] * t417;
        const P t425 = t279 + t424;
        const P t426 = c[5] * t419;
        const P t427 = t423 - t426;
        const P t428 = c[5] * t418;
        const P t429 = t425 + t428;
        const P t430 = t423 + t426;
        const P t431 = t428 - t425;
        // complex block of 3
        const P t432 = t264 + t297;
        const P t433 = t300 - t267;
        const P t434 = t297 - t264;
        const P t435 = t267 + t300;
        const P t436 = t243 - t432;
        const P t437 = t433 - t246;
        const P t438 = c[4] * t432;
        const P t439 = t438 + t243;
        const P t440 = c[4] * t433;
        const P t441 = t246 + t440;
        const P t442 = c[5] * t435;
        const P t443 = t439 - t442;
        const P t444 = c[5] * t434;
        const P t445 = t441 + t444;
        const P t446 = t439 + t442;
        const P t447 = t444 - t441;
        // spectrum block of 5
        const P t448 = t421 + t437;
        const P t449 = t448 - t408;
        const P t450 = c[0] * t421;
        const P t451 = c[1] * t437;
        const P t452 = t450 - t451;
        const P t453 = t452 - t408;
        const P t454 = c[3] * t420;
        const P t455 = c[2] * t436;
        const P t456 = t454 + t455;
        const P t457 = t453 - t456;
        const P t458 = t453 + t456;
        const P t459 = c[1] * t421;
        const P t460 = t408 + t459;
        const P t461 = c[0] * t437;
        const P t462 = t461 - t460;
        const P t463 = c[2] * t420;
        const P t464 = c[3] * t436;
        const P t465 = t463 - t464;
        const P t466 = t462 - t465;
        const P t467 = t462 + t465;
        // spectrum block of 5
        const P t468 = t429 + t445;
        const P t469 = t414 - t468;
        const P t470 = c[0] * t429;
        const P t471 = t414 - t470;
        const P t472 = c[1] * t445;
        const P t473 = t471 + t472;
        const P t474 = c[3] * t427;
        const P t475 = c[2] * t443;
        const P t476 = t474 + t475;
        const P t477 = t473 - t476;
        const P t478 = t473 + t476;
        const P t479 = c[1] * t429;
        const P t480 = c[0] * t445;
        const P t481 = t479 - t480;
        const P t482 = t481 + t414;
        const P t483 = c[2] * t427;
        const P t484 = c[3] * t443;
        const P t485 = t483 - t484;
        const P t486 = t482 - t485;
        const P t487 = t482 + t485;
        // spectrum block of 5
        const P t488 = t431 + t447;
        const P t489 = t488 + t415;
        const P t490 = c[0] * t431;
        const P t491 = c[1] * t447;
        const P t492 = t490 - t491;
        const P t493 = t492 + t415;
        const P t494 = c[3] * t430;
        const P t495 = c[2] * t446;
        const P t496 = t494 + t495;
        const P t497 = t493 - t496;
        const P t498 = t493 + t496;
        const P t499 = c[1] * t431;
        const P t500 = t415 - t499;
        const P t501 = c[0] * t447;
        const P t502 = t500 + t501;
        const P t503 = c[2] * t430;
        const P t504 = c[3] * t446;
        const P t505 = t503 - t504;
        const P t506 = t502 - t505;
        const P t507 = t502 + t505;
        const V t508 = part<0>(t226);
        const V t509 = part<1>(t226);
        // real block of 2
        const V t510 = t508 + t509;
        io.re(0, t510);
        const V t511 = t508 - t509;
        io.re(31, t511);
        const P t512 = shuffled<0, 2>(t348, t449);
        const P t513 = shuffled<1, 3>(t348, t449);
        // complex block of 2
        const P t514 = t512 + t513;
        io.pair(2, t514);
        const P t515 = t512 - t513;
        io.pair(29, negated<0, 1>(t515));
        const P t516 = shuffled<0, 2>(t356, t457);
        const P t517 = shuffled<1, 3>(t356, t457);
        // complex block of 2
        const P t518 = t516 + t517;
        io.pair(4, t518);
        const P t519 = t516 - t517;
        io.pair(27, negated<0, 1>(t519));
        const P t520 = shuffled<0, 2>(t377, t498);
        const P t521 = shuffled<1, 3>(t377, t498);
        // complex block of 2
        const P t522 = t520 + t521;
        io.pair(6, negated<0, 1>(t522));
        const P t523 = shuffled<0, 3>(t520, t521);
        const P t524 = shuffled<0, 3>(t521, t520);
        const P t525 = t523 - t524;
        io.pair(25, negated<0, 1>(t525));
        const P t526 = shuffled<0, 2>(t365, t466);
        const P t527 = shuffled<1, 3>(t365, t466);
        // complex block of 2
        const P t528 = t526 + t527;
        io.pair(8, t528);
        const P t529 = t526 - t527;
        io.pair(23, negated<0, 1>(t529));
        const P t530 = shuffled<0, 2>(t388, t469);
        const P t531 = shuffled<1, 3>(t388, t469);
        // complex block of 2
        const P t532 = t530 + t531;
        io.pair(10, t532);
        const P t533 = t530 - t531;
        io.pair(21, negated<0, 1>(t533));
        const P t534 = shuffled<0, 2>(t368, t489);
        const P t535 = shuffled<1, 3>(t368, t489);
        // complex block of 2
        const P t536 = t534 + t535;
        io.pair(12, negated<0, 1>(t536));
        const P t537 = shuffled<0, 3>(t534, t535);
        const P t538 = shuffled<0, 3>(t535, t534);
        const P t539 = t537 - t538;
        io.pair(19, negated<0, 1>(t539));
        const P t540 = shuffled<0, 2>(t385, t506);
        const P t541 = shuffled<1, 3>(t385, t506);
        // complex block of 2
        const P t542 = t540 + t541;
        io.pair(14, t542);
        const P t543 = t540 - t541;
        io.pair(17, negated<0, 1>(t543));
        const P t544 = shuffled<0, 2>(t366, t467);
        const P t545 = shuffled<1, 3>(t366, t467);
        // complex block of 2
        const P t546 = t544 + t545;
        io.pair(16, t546);
        const P t547 = t544 - t545;
        io.pair(15, negated<0, 1>(t547));
        const P t548 = shuffled<0, 2>(t406, t487);
        const P t549 = shuffled<1, 3>(t406, t487);
        // complex block of 2
        const P t550 = t548 + t549;
        io.pair(18, t550);
        const P t551 = t548 - t549;
        io.pair(13, negated<0, 1>(t551));
        const P t552 = shuffled<0, 2>(t396, t477);
        const P t553 = shuffled<1, 3>(t396, t477);
        // complex block of 2
        const P t554 = t552 + t553;
        io.pair(20, t554);
        const P t555 = t552 - t553;
        io.pair(11, negated<0, 1>(t555));
        const P t556 = shuffled<0, 2>(t405, t486);
        const P t557 = shuffled<1, 3>(t405, t486);
        // complex block of 2
        const P t558 = t556 + t557;
        io.pair(22, negated<0, 1>(t558));
        const P t559 = shuffled<0, 3>(t556, t557);
        const P t560 = shuffled<0, 3>(t557, t556);
        const P t561 = t559 - t560;
        io.pair(9, negated<0, 1>(t561));
        const P t562 = shuffled<0, 2>(t376, t497);
        const P t563 = shuffled<1, 3>(t376, t497);
        // complex block of 2
        const P t564 = t562 + t563;
        io.pair(24, negated<0, 1>(t564));
        const P t565 = shuffled<0, 3>(t562, t563);
        const P t566 = shuffled<0, 3>(t563, t562);
        const P t567 = t565 - t566;
        io.pair(7, negated<0, 1>(t567));
        const P t568 = shuffled<0, 2>(t397, t478);
        const P t569 = shuffled<1, 3>(t397, t478);
        // complex block of 2
        const P t570 = t568 + t569;
        io.pair(26, negated<0, 1>(t570));
        const P t571 = shuffled<0, 3>(t568, t569);
        const P t572 = shuffled<0, 3>(t569, t568);
        const P t573 = t571 - t572;
        io.pair(5, negated<0, 1>(t573));
        const P t574 = shuffled<0, 2>(t386, t507);
        const P t575 = shuffled<1, 3>(t386, t507);
        // complex block of 2
        const P t576 = t574 + t575;
        io.pair(28, t576);
        const P t577 = t574 - t575;
        io.pair(3, negated<0, 1>(t577));
        const P t578 = shuffled<0, 2>(t357, t458);
        const P t579 = shuffled<1, 3>(t357, t458);
        // complex block of 2
        const P t580 = t578 + t579;
        io.pair(30, negated<0, 1>(t580));
        const P t581 = shuffled<0, 3>(t578, t579);
        const P t582 = shuffled<0, 3>(t579, t578);
        const P t583 = t581 - t582;
        io.pair(1, negated<0, 1>(t583));
    }
};

}  // namespace zulg
