// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 62.
// Complex DFT of 62 points, prime-factor, order 31, 2; two lines of a stage to a register.
// 214 sums, 170 differences, 194 products of registers, which do the 2400 steps of the graph, those with
// `scale` included; 126 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<62> {
    static constexpr int steps = 2400;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.29980901846811486,  // c[6]: -P[2] of 31
        0.21884316352804659,  // c[7]: Q[2] of 31
        0.35531525594489755,  // c[8]: P[8] of 31
        0.1073724670043011,  // c[9]: -Q[8] of 31
        0.10130252550848418,  // c[10]: Q[12] of 31
        0.35709323166839874,  // c[11]: -P[12] of 31
        0.3665614991633792,  // c[12]: P[4] of 31
        0.05839901633481273,  // c[13]: Q[4] of 31
        0.2485676599132395,  // c[14]: P[14] of 31
        0.27566627690567064,  // c[15]: Q[14] of 31
        0.2970284107916672,  // c[16]: P[6] of 31
        0.2226025627892778,  // c[17]: Q[6] of 31
        0.3386491040641593,  // c[18]: Q[1] of 31
        0.15196895108646355,  // c[19]: -P[1] of 31
        0.36539376648991023,  // c[20]: -Q[11] of 31
        0.06530829340975558,  // c[21]: P[11] of 31
        0.008505491359144196,  // c[22]: Q[9] of 31
        0.37108682864596165,  // c[23]: P[9] of 31
        0.37067181273221134,  // c[24]: -P[3] of 31
        0.019498333867134416,  // c[25]: Q[3] of 31
        0.28075102554360776,  // c[26]: Q[7] of 31
        0.24280988331200667,  // c[27]: -P[7] of 31
        0.3312534027537607,  // c[28]: -Q[13] of 31
        0.1674782402040115,  // c[29]: -P[13] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.3417205692768941,  // c[31]: P[10] of 31
        0.1449304326594425,  // c[32]: Q[10] of 31
        0.1255134364645471,  // c[33]: sin 2 pi 1/3 times Q[10] of 31
        0.2959386939894704,  // c[34]: sin 2 pi 1/3 times P[10] of 31
        0.2580069240952765,  // c[35]: Q[5] of 31
        0.26685240283098827,  // c[36]: P[5] of 31
        0.1855921454276674,  // c[37]: beta of 31
        0.23110095991255428,  // c[38]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[39]: sin 2 pi 1/3 times Q[5] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x32_1 = io.pairs(32, 1);
        const Q x4_35 = io.pairs(4, 35);
        // real block of 5
        const Q t0 = x32_1 + x4_35;
        const Q t1 = x32_1 - x4_35;
        const Q x8_39 = io.pairs(8, 39);
        const Q x16_47 = io.pairs(16, 47);
        const Q t2 = x8_39 + x16_47;
        const Q t3 = x8_39 - x16_47;
        const Q t4 = t0 + t2;
        const Q x2_33 = io.pairs(2, 33);
        const Q t5 = t4 + x2_33;
        const Q t6 = c[0] * t0;
        const Q t7 = c[1] * t2;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x2_33;
        const Q t10 = c[2] * t3;
        const Q t11 = c[3] * t1;
        const Q t12 = t10 - t11;
        const Q t13 = c[1] * t0;
        const Q t14 = x2_33 - t13;
        const Q t15 = c[0] * t2;
        const Q t16 = t14 + t15;
        const Q t17 = c[2] * t1;
        const Q t18 = c[3] * t3;
        const Q t19 = t17 + t18;
        const Q x48_17 = io.pairs(48, 17);
        const Q x34_3 = io.pairs(34, 3);
        // real block of 5
        const Q t20 = x48_17 + x34_3;
        const Q t21 = x48_17 - x34_3;
        const Q x6_37 = io.pairs(6, 37);
        const Q x24_55 = io.pairs(24, 55);
        const Q t22 = x6_37 + x24_55;
        const Q t23 = x6_37 - x24_55;
        const Q t24 = t22 + t20;
        const Q x26_57 = io.pairs(26, 57);
        const Q x42_11 = io.pairs(42, 11);
        // real block of 5
        const Q t25 = x26_57 + x42_11;
        const Q t26 = x26_57 - x42_11;
        const Q x22_53 = io.pairs(22, 53);
        const Q x44_13 = io.pairs(44, 13);
        const Q t27 = x22_53 + x44_13;
        const Q t28 = x22_53 - x44_13;
        const Q t29 = t25 + t27;
        const Q x52_21 = io.pairs(52, 21);
        const Q t30 = t29 + x52_21;
        const Q x12_43 = io.pairs(12, 43);
        // real block of 5
        const Q t31 = t24 + x12_43;
        // real block of 3
        const Q t32 = t31 + t30;
        // real block of 5
        const Q t33 = c[0] * t25;
        const Q t34 = c[1] * t27;
        const Q t35 = t33 - t34;
        const Q t36 = t35 + x52_21;
        // real block of 5
        const Q t37 = c[0] * t22;
        const Q t38 = c[1] * t20;
        const Q t39 = t37 - t38;
        const Q t40 = t39 + x12_43;
        // complex block of 3
        const Q t41 = t40 + t36;
        // real block of 5
        const Q t42 = c[2] * t28;
        const Q t43 = c[3] * t26;
        const Q t44 = t42 - t43;
        // real block of 5
        const Q t45 = c[2] * t21;
        const Q t46 = c[3] * t23;
        const Q t47 = t45 - t46;
        // complex block of 3
        const Q t48 = t47 + t44;
        const Q t49 = t47 - t44;
        // real block of 5
        const Q t50 = c[1] * t25;
        const Q t51 = x52_21 - t50;
        const Q t52 = c[0] * t27;
        const Q t53 = t51 + t52;
        // real block of 5
        const Q t54 = c[1] * t22;
        const Q t55 = x12_43 - t54;
        const Q t56 = c[0] * t20;
        const Q t57 = t55 + t56;
        // complex block of 3
        const Q t58 = t57 + t53;
        // real block of 5
        const Q t59 = c[2] * t26;
        const Q t60 = c[3] * t28;
        const Q t61 = t59 + t60;
        // real block of 5
        const Q t62 = c[2] * t23;
        const Q t63 = c[3] * t21;
        const Q t64 = t62 + t63;
        // complex block of 3
        const Q t65 = t64 + t61;
        const Q t66 = t61 - t64;
        const Q x36_5 = io.pairs(36, 5);
        const Q x20_51 = io.pairs(20, 51);
        // real block of 5
        const Q t67 = x36_5 + x20_51;
        const Q t68 = x36_5 - x20_51;
        const Q x40_9 = io.pairs(40, 9);
        const Q x18_49 = io.pairs(18, 49);
        const Q t69 = x40_9 + x18_49;
        const Q t70 = x40_9 - x18_49;
        const Q t71 = t67 + t69;
        const Q x56_25 = io.pairs(56, 25);
        const Q x38_7 = io.pairs(38, 7);
        // real block of 5
        const Q t72 = x56_25 + x38_7;
        const Q t73 = x56_25 - x38_7;
        const Q x14_45 = io.pairs(14, 45);
        const Q x28_59 = io.pairs(28, 59);
        const Q t74 = x14_45 + x28_59;
        const Q t75 = x14_45 - x28_59;
        const Q t76 = t72 + t74;
        const Q x50_19 = io.pairs(50, 19);
        const Q t77 = t76 + x50_19;
        const Q x10_41 = io.pairs(10, 41);
        // real block of 5
        const Q t78 = t71 + x10_41;
        // real block of 3
        const Q t79 = t77 + t78;
        // real block of 5
        const Q t80 = c[0] * t72;
        const Q t81 = c[1] * t74;
        const Q t82 = t80 - t81;
        const Q t83 = t82 + x50_19;
        // real block of 5
        const Q t84 = c[0] * t67;
        const Q t85 = c[1] * t69;
        const Q t86 = t84 - t85;
        const Q t87 = t86 + x10_41;
        // complex block of 3
        const Q t88 = t83 + t87;
        // real block of 5
        const Q t89 = c[2] * t75;
        const Q t90 = c[3] * t73;
        const Q t91 = t89 - t90;
        // real block of 5
        const Q t92 = c[2] * t70;
        const Q t93 = c[3] * t68;
        const Q t94 = t92 - t93;
        // complex block of 3
        const Q t95 = t91 + t94;
        const Q t96 = t91 - t94;
        // real block of 5
        const Q t97 = c[1] * t72;
        const Q t98 = x50_19 - t97;
        const Q t99 = c[0] * t74;
        const Q t100 = t98 + t99;
        // real block of 5
        const Q t101 = c[1] * t67;
        const Q t102 = x10_41 - t101;
        const Q t103 = c[0] * t69;
        const Q t104 = t102 + t103;
        // complex block of 3
        const Q t105 = t100 + t104;
        // real block of 5
        const Q t106 = c[2] * t73;
        const Q t107 = c[3] * t75;
        const Q t108 = t106 + t107;
        // real block of 5
        const Q t109 = c[2] * t68;
        const Q t110 = c[3] * t70;
        const Q t111 = t109 + t110;
        // complex block of 3
        const Q t112 = t108 + t111;
        const Q t113 = t111 - t108;
        const Q x54_23 = io.pairs(54, 23);
        const Q x46_15 = io.pairs(46, 15);
        // real block of 5
        const Q t114 = x54_23 + x46_15;
        const Q t115 = x54_23 - x46_15;
        const Q x30_61 = io.pairs(30, 61);
        const Q x58_27 = io.pairs(58, 27);
        const Q t116 = x30_61 + x58_27;
        const Q t117 = x30_61 - x58_27;
        const Q t118 = t116 + t114;
        const Q x60_29 = io.pairs(60, 29);
        const Q t119 = t118 + x60_29;
        const Q t120 = c[0] * t116;
        const Q t121 = c[1] * t114;
        const Q t122 = t120 - t121;
        const Q t123 = t122 + x60_29;
        const Q t124 = c[2] * t115;
        const Q t125 = c[3] * t117;
        const Q t126 = t124 - t125;
        const Q t127 = c[1] * t116;
        const Q t128 = x60_29 - t127;
        const Q t129 = c[0] * t114;
        const Q t130 = t128 + t129;
        const Q t131 = c[2] * t117;
        const Q t132 = c[3] * t115;
        const Q t133 = t131 + t132;
        // real block of 3
        const Q t134 = t77 - t78;
        // real block of 3
        const Q t135 = t31 - t30;
        // real block of 3
        const Q t136 = c[5] * t134;
        // real block of 3
        const Q t137 = c[5] * t135;
        // complex block of 2
        const Q t138 = t136 + t137;
        const Q t139 = t137 - t136;
        // real block of 3
        const Q t140 = t79 + t5;
        // real block of 3
        const Q t141 = t32 + t119;
        // real block of 2
        const Q t142 = t140 + t141;
        const Q t143 = t140 - t141;
        // real block of 3
        const Q t144 = c[4] * t79;
        const Q t145 = t5 - t144;
        // real block of 3
        const Q t146 = c[4] * t32;
        const Q t147 = t119 - t146;
        // complex block of 2
        const Q t148 = t145 + t147;
        const Q t149 = t145 - t147;
        // complex block of 3
        const Q t150 = t83 - t87;
        const Q t151 = c[4] * t95;
        const Q t152 = t12 - t151;
        const Q t153 = c[5] * t150;
        const Q t154 = t152 - t153;
        const Q t155 = t152 + t153;
        // complex block of 3
        const Q t156 = t40 - t36;
        const Q t157 = c[4] * t48;
        const Q t158 = t126 - t157;
        const Q t159 = c[5] * t156;
        const Q t160 = t158 - t159;
        const Q t161 = t158 + t159;
        // complex block of 2
        const Q t162 = t154 + t160;
        const Q t163 = t154 - t160;
        // complex block of 2
        const Q t164 = t155 + t161;
        const Q t165 = t155 - t161;
        // complex block of 3
        const Q t166 = t88 + t9;
        // complex block of 3
        const Q t167 = t41 + t123;
        // complex block of 2
        const Q t168 = t166 + t167;
        const Q t169 = t166 - t167;
        // complex block of 3
        const Q t170 = t95 + t12;
        // complex block of 3
        const Q t171 = t48 + t126;
        // complex block of 2
        const Q t172 = t170 + t171;
        const Q t173 = t170 - t171;
        // complex block of 3
        const Q t174 = c[4] * t88;
        const Q t175 = t9 - t174;
        const Q t176 = c[5] * t96;
        const Q t177 = t175 + t176;
        const Q t178 = t175 - t176;
        // complex block of 3
        const Q t179 = c[4] * t41;
        const Q t180 = t123 - t179;
        const Q t181 = c[5] * t49;
        const Q t182 = t180 + t181;
        const Q t183 = t180 - t181;
        // complex block of 2
        const Q t184 = t177 + t182;
        const Q t185 = t177 - t182;
        // complex block of 2
        const Q t186 = t178 + t183;
        const Q t187 = t178 - t183;
        // complex block of 3
        const Q t188 = t100 - t104;
        const Q t189 = c[4] * t112;
        const Q t190 = t189 - t19;
        const Q t191 = c[5] * t188;
        const Q t192 = t190 - t191;
        const Q t193 = t190 + t191;
        // complex block of 3
        const Q t194 = t57 - t53;
        const Q t195 = c[4] * t65;
        const Q t196 = t195 - t133;
        const Q t197 = c[5] * t194;
        const Q t198 = t196 - t197;
        const Q t199 = t196 + t197;
        // complex block of 2
        const Q t200 = t192 + t198;
        const Q t201 = t192 - t198;
        // complex block of 2
        const Q t202 = t193 + t199;
        const Q t203 = t193 - t199;
        // complex block of 3
        const Q t204 = t105 + t16;
        // complex block of 3
        const Q t205 = t58 + t130;
        // complex block of 2
        const Q t206 = t204 + t205;
        const Q t207 = t204 - t205;
        // complex block of 3
        const Q t208 = t112 + t19;
        // complex block of 3
        const Q t209 = t65 + t133;
        // complex block of 2
        const Q t210 = t208 + t209;
        const Q t211 = t209 - t208;
        // complex block of 3
        const Q t212 = c[4] * t105;
        const Q t213 = t16 - t212;
        const Q t214 = c[5] * t113;
        const Q t215 = t213 + t214;
        const Q t216 = t213 - t214;
        // complex block of 3
        const Q t217 = c[4] * t58;
        const Q t218 = t130 - t217;
        const Q t219 = c[5] * t66;
        const Q t220 = t218 + t219;
        const Q t221 = t218 - t219;
        // complex block of 2
        const Q t222 = t215 + t220;
        const Q t223 = t215 - t220;
        // complex block of 2
        const Q t224 = t216 + t221;
        const Q t225 = t216 - t221;
        const Q x0_31 = io.pairs(0, 31);
        // complex block of 31, multiplier 2
        const Q t226 = x0_31 + t142;
        const Q t227 = c[30] * t142;
        const Q t228 = x0_31 - t227;
        const Q t229 = c[31] * t148;
        const Q t230 = c[32] * t138;
        const Q t231 = t229 + t230;
        // spectrum block of 3
        const Q t232 = t231 + t228;
        // complex block of 31, multiplier 2
        const Q t233 = c[6] * t224;
        const Q t234 = c[7] * t202;
        const Q t235 = t233 + t234;
        const Q t236 = c[8] * t222;
        const Q t237 = c[9] * t200;
        const Q t238 = t236 - t237;
        // complex block of 3
        const Q t239 = t238 - t235;
        // complex block of 31, multiplier 2
        const Q t240 = c[10] * t210;
        const Q t241 = c[11] * t206;
        const Q t242 = t240 - t241;
        // complex block of 3
        const Q t243 = t238 + t235;
        const Q t244 = t239 + t242;
        // complex block of 31, multiplier 2
        const Q t245 = c[7] * t224;
        const Q t246 = c[6] * t202;
        const Q t247 = t245 - t246;
        const Q t248 = c[8] * t200;
        const Q t249 = c[9] * t222;
        const Q t250 = t248 + t249;
        // complex block of 3
        const Q t251 = t250 + t247;
        const Q t252 = t250 - t247;
        // complex block of 31, multiplier 2
        const Q t253 = c[12] * t186;
        const Q t254 = c[13] * t164;
        const Q t255 = t253 + t254;
        const Q t256 = c[14] * t184;
        const Q t257 = c[15] * t162;
        const Q t258 = t256 + t257;
        // complex block of 3
        const Q t259 = t258 + t255;
        // complex block of 31, multiplier 2
        const Q t260 = c[16] * t168;
        const Q t261 = c[17] * t172;
        const Q t262 = t260 - t261;
        // complex block of 3
        const Q t263 = t258 - t255;
        const Q t264 = t259 + t262;
        // complex block of 31, multiplier 2
        const Q t265 = c[13] * t186;
        const Q t266 = c[12] * t164;
        const Q t267 = t265 - t266;
        const Q t268 = c[15] * t184;
        const Q t269 = c[14] * t162;
        const Q t270 = t268 - t269;
        // complex block of 3
        const Q t271 = t270 + t267;
        const Q t272 = t267 - t270;
        // complex block of 31, multiplier 2
        const Q t273 = c[16] * t172;
        const Q t274 = c[17] * t168;
        const Q t275 = t273 + t274;
        const Q t276 = c[11] * t210;
        const Q t277 = c[10] * t206;
        const Q t278 = t276 + t277;
        // spectrum block of 3
        const Q t279 = c[33] * t148;
        const Q t280 = c[34] * t138;
        const Q t281 = t279 - t280;
        const Q t282 = c[4] * t231;
        const Q t283 = t228 - t282;
        const Q t284 = t283 - t281;
        const Q t285 = t283 + t281;
        // complex block of 3
        const Q t286 = t275 - t271;
        const Q t287 = c[4] * t271;
        const Q t288 = t287 + t275;
        const Q t289 = c[5] * t263;
        const Q t290 = t288 + t289;
        const Q t291 = t288 - t289;
        const Q t292 = c[4] * t259;
        const Q t293 = t262 - t292;
        const Q t294 = c[5] * t272;
        const Q t295 = t293 - t294;
        const Q t296 = t293 + t294;
        // complex block of 3
        const Q t297 = t251 + t278;
        const Q t298 = c[4] * t251;
        const Q t299 = t278 - t298;
        const Q t300 = c[5] * t243;
        const Q t301 = t299 + t300;
        const Q t302 = t299 - t300;
        const Q t303 = c[4] * t239;
        const Q t304 = t242 - t303;
        const Q t305 = c[5] * t252;
        const Q t306 = t304 - t305;
        const Q t307 = t304 + t305;
        // spectrum block of 5
        const Q t308 = t264 + t244;
        const Q t309 = c[0] * t264;
        const Q t310 = c[1] * t244;
        const Q t311 = t309 - t310;
        const Q t312 = c[1] * t264;
        const Q t313 = t232 - t312;
        const Q t314 = shuffled<1, 0, 3, 2>(t185);
        // complex block of 31, multiplier 2
        const Q t315 = c[18] * t314;
        const Q t316 = shuffled<1, 0, 3, 2>(t163);
        const Q t317 = c[19] * t316;
        const Q t318 = t315 + t317;
        const Q t319 = shuffled<1, 0, 3, 2>(t187);
        const Q t320 = c[20] * t319;
        const Q t321 = shuffled<1, 0, 3, 2>(t165);
        const Q t322 = c[21] * t321;
        const Q t323 = t320 + t322;
        const Q t324 = shuffled<0, 5, 2, 7>(t318, t323);
        const Q t325 = shuffled<0, 5, 2, 7>(t323, t318);
        // complex block of 3
        const Q t326 = t324 - t325;
        const Q t327 = shuffled<1, 0, 3, 2>(t169);
        // complex block of 31, multiplier 2
        const Q t328 = c[22] * t327;
        const Q t329 = shuffled<1, 0, 3, 2>(t173);
        const Q t330 = c[23] * t329;
        const Q t331 = t328 + t330;
        // complex block of 3
        const Q t332 = t323 + t318;
        const Q t333 = flipped<0, 1, 0, 1>(t331);
        const Q t334 = t326 + t333;
        // complex block of 31, multiplier 2
        const Q t335 = Q(-c[19], c[19], -c[19], c[19]) * t314;
        const Q t336 = Q(c[18], -c[18], c[18], -c[18]) * t316;
        const Q t337 = t335 + t336;
        const Q t338 = Q(-c[20], c[20], -c[20], c[20]) * t321;
        const Q t339 = Q(c[21], -c[21], c[21], -c[21]) * t319;
        const Q t340 = t338 + t339;
        // complex block of 3
        const Q t341 = t337 - t340;
        const Q t342 = t340 + t337;
        const Q t343 = shuffled<1, 0, 3, 2>(t211);
        // complex block of 31, multiplier 2
        const Q t344 = Q(-c[24], c[24], -c[24], c[24]) * t343;
        const Q t345 = shuffled<1, 0, 3, 2>(t207);
        const Q t346 = Q(c[25], -c[25], c[25], -c[25]) * t345;
        const Q t347 = t344 + t346;
        const Q t348 = shuffled<1, 0, 3, 2>(t223);
        const Q t349 = c[26] * t348;
        const Q t350 = shuffled<1, 0, 3, 2>(t201);
        const Q t351 = c[27] * t350;
        const Q t352 = t349 + t351;
        const Q t353 = shuffled<1, 0, 3, 2>(t225);
        const Q t354 = c[28] * t353;
        const Q t355 = shuffled<1, 0, 3, 2>(t203);
        const Q t356 = c[29] * t355;
        const Q t357 = t354 + t356;
        const Q t358 = shuffled<0, 5, 2, 7>(t352, t357);
        const Q t359 = shuffled<0, 5, 2, 7>(t357, t352);
        // complex block of 3
        const Q t360 = t358 - t359;
        const Q t361 = t357 + t352;
        const Q t362 = t360 + t347;
        // complex block of 31, multiplier 2
        const Q t363 = c[25] * t343;
        const Q t364 = c[24] * t345;
        const Q t365 = t363 + t364;
        const Q t366 = shuffled<1, 0, 3, 2>(t149);
        const Q t367 = c[35] * t366;
        const Q t368 = shuffled<1, 0, 3, 2>(t139);
        const Q t369 = c[36] * t368;
        const Q t370 = t367 + t369;
        const Q t371 = shuffled<1, 0, 3, 2>(t143);
        const Q t372 = c[37] * t371;
        // spectrum block of 3
        const Q t373 = t370 + t372;
        // complex block of 31, multiplier 2
        const Q t374 = Q(-c[27], c[27], -c[27], c[27]) * t348;
        const Q t375 = Q(c[26], -c[26], c[26], -c[26]) * t350;
        const Q t376 = t374 + t375;
        const Q t377 = Q(-c[29], c[29], -c[29], c[29]) * t353;
        const Q t378 = Q(c[28], -c[28], c[28], -c[28]) * t355;
        const Q t379 = t377 + t378;
        // complex block of 3
        const Q t380 = t379 + t376;
        const Q t381 = t379 - t376;
        // complex block of 31, multiplier 2
        const Q t382 = Q(-c[22], c[22], -c[22], c[22]) * t329;
        const Q t383 = Q(c[23], -c[23], c[23], -c[23]) * t327;
        const Q t384 = t382 + t383;
        const P t385 = part<0>(t366);
        const P t386 = part<1>(t366);
        const P t387 = shuffled<0, 2>(t385, t386);
        // spectrum block of 3
        const P t388 = c[38] * t387;
        const P t389 = part<0>(t368);
        const P t390 = part<1>(t368);
        const P t391 = shuffled<1, 3>(t389, t390);
        // spectrum block of 3
        const P t392 = c[39] * t391;
        const P t393 = shuffled<0, 2>(t388, t392);
        const P t394 = shuffled<1, 3>(t388, t392);
        const Q t395 = joined(t393, t394);
        const P t396 = shuffled<0, 2>(t389, t390);
        // spectrum block of 3
        const P t397 = c[39] * t396;
        const P t398 = shuffled<1, 3>(t385, t386);
        // spectrum block of 3
        const P t399 = c[38] * t398;
        const P t400 = shuffled<0, 2>(t397, t399);
        const P t401 = shuffled<1, 3>(t397, t399);
        const Q t402 = joined(t400, t401);
        // spectrum block of 3
        const Q t403 = t395 - t402;
        // complex block of 3
        const Q t404 = Q(-c[4], c[4], -c[4], c[4]) * t326;
        const Q t405 = t331 + t404;
        const Q t406 = Q(-c[5], c[5], -c[5], c[5]) * t341;
        const Q t407 = t405 + t406;
        const Q t408 = shuffled<0, 5, 2, 7>(t405, t406);
        const Q t409 = shuffled<0, 5, 2, 7>(t406, t405);
        const Q t410 = t408 - t409;
        // complex block of 3
        const Q t411 = c[4] * t360;
        const Q t412 = t347 - t411;
        const Q t413 = c[5] * t380;
        const Q t414 = t412 - t413;
        const Q t415 = t412 + t413;
        // spectrum block of 3
        const Q t416 = Q(-c[4], c[4], -c[4], c[4]) * t370;
        const Q t417 = flipped<0, 1, 0, 1>(t372);
        const Q t418 = t416 + t417;
        const Q t419 = t418 + t403;
        const Q t420 = t418 - t403;
        // complex block of 3
        const Q t421 = Q(c[4], -c[4], c[4], -c[4]) * t381;
        const Q t422 = t365 + t421;
        const Q t423 = c[5] * t361;
        const Q t424 = t422 + t423;
        const Q t425 = shuffled<0, 5, 2, 7>(t423, t422);
        const Q t426 = shuffled<0, 5, 2, 7>(t422, t423);
        const Q t427 = t425 - t426;
        // complex block of 3
        const Q t428 = c[4] * t342;
        const Q t429 = t428 + t384;
        const Q t430 = Q(-c[5], c[5], -c[5], c[5]) * t332;
        const Q t431 = t429 + t430;
        const Q t432 = t429 - t430;
        const Q t433 = flipped<1, 0, 1, 0>(t365);
        // complex block of 3
        const Q t434 = t381 + t433;
        // complex block of 3
        const Q t435 = t384 - t342;
        // spectrum block of 5
        const Q t436 = t334 + t362;
        const Q t437 = c[0] * t334;
        const Q t438 = c[1] * t362;
        const Q t439 = t437 - t438;
        const Q t440 = Q(-c[1], c[1], -c[1], c[1]) * t334;
        const Q t441 = t373 + t440;
        // spectrum block of 5
        const Q t442 = c[0] * t407;
        const P t443 = part<0>(t442);
        const P t444 = part<1>(t442);
        const P t445 = shuffled<0, 2>(t443, t444);
        const Q t446 = c[1] * t414;
        const P t447 = part<0>(t446);
        const P t448 = part<1>(t446);
        const P t449 = shuffled<0, 2>(t447, t448);
        const P t450 = t445 - t449;
        const P t451 = part<0>(t419);
        const P t452 = part<1>(t419);
        const P t453 = shuffled<0, 2>(t451, t452);
        const P t454 = t450 + t453;
        const Q t455 = c[2] * t424;
        const P t456 = part<0>(t455);
        const P t457 = part<1>(t455);
        const P t458 = shuffled<0, 2>(t456, t457);
        const Q t459 = c[3] * t431;
        const P t460 = part<0>(t459);
        const P t461 = part<1>(t459);
        const P t462 = shuffled<0, 2>(t460, t461);
        const P t463 = t458 - t462;
        const P t464 = shuffled<1, 3>(t460, t461);
        const P t465 = shuffled<1, 3>(t456, t457);
        // spectrum block of 5
        const P t466 = t464 + t465;
        const P t467 = shuffled<1, 3>(t451, t452);
        const P t468 = shuffled<1, 3>(t443, t444);
        const P t469 = t467 - t468;
        const P t470 = shuffled<1, 3>(t447, t448);
        const P t471 = t469 - t470;
        // spectrum block of 5
        const P t472 = t454 - t463;
        const P t473 = t454 + t463;
        // spectrum block of 5
        const P t474 = t471 + t466;
        const P t475 = t471 - t466;
        // spectrum block of 5
        const Q t476 = t311 + t232;
        const Q t477 = c[3] * t286;
        const Q t478 = c[2] * t297;
        const Q t479 = t477 + t478;
        const Q t480 = t476 - t479;
        const Q t481 = t476 + t479;
        const Q t482 = flipped<0, 1, 0, 1>(t373);
        // spectrum block of 5
        const Q t483 = t439 + t482;
        const Q t484 = c[3] * t435;
        const Q t485 = c[2] * t434;
        const Q t486 = t484 + t485;
        const Q t487 = t483 + t486;
        const Q t488 = t483 - t486;
        // spectrum block of 5
        const Q t489 = t295 + t306;
        const Q t490 = t489 + t284;
        const Q t491 = c[0] * t295;
        const Q t492 = c[1] * t306;
        const Q t493 = t491 - t492;
        const Q t494 = t493 + t284;
        const Q t495 = c[3] * t290;
        const Q t496 = c[2] * t301;
        const Q t497 = t495 + t496;
        const Q t498 = t494 - t497;
        const Q t499 = t494 + t497;
        const Q t500 = flipped<0, 1, 0, 1>(t407);
        // spectrum block of 5
        const Q t501 = t414 + t500;
        const Q t502 = t501 + t419;
        // spectrum block of 2
        const Q t503 = t480 + t487;
        const P t504 = shuffled<0, 2>(t473, t475);
        const P t505 = shuffled<1, 3>(t473, t475);
        const Q t506 = joined(t504, t505);
        // spectrum block of 2
        const Q t507 = t499 + t506;
        const Q t508 = shuffled<0, 1, 4, 5>(t503, t507);
        const Q t509 = shuffled<2, 3, 6, 7>(t503, t507);
        // complex block of 2
        const Q t510 = t508 + t509;
        const Q t511 = t508 - t509;
        const Q t512 = shuffled<0, 1, 6, 7>(t510, t511);
        io.pairs(4, 5, t512);
        const Q t513 = shuffled<0, 1, 6, 7>(t511, t510);
        io.pairs(35, 36, t513);
        // spectrum block of 2
        const Q t514 = t480 - t487;
        // spectrum block of 2
        const Q t515 = t499 - t506;
        const Q t516 = shuffled<0, 1, 4, 5>(t515, t514);
        const Q t517 = shuffled<2, 3, 6, 7>(t515, t514);
        // complex block of 2
        const Q t518 = t516 + t517;
        const Q t519 = t516 - t517;
        const Q t520 = shuffled<0, 1, 6, 7>(t518, t519);
        io.pairs(26, 27, t520);
        const Q t521 = shuffled<0, 1, 6, 7>(t519, t518);
        io.pairs(57, 58, t521);
        // spectrum block of 2
        const Q t522 = t481 + t488;
        const Q t523 = shuffled<0, 1, 4, 5>(t226, t522);
        const Q t524 = shuffled<2, 3, 6, 7>(t226, t522);
        // complex block of 2
        const Q t525 = t523 + t524;
        const Q t526 = t523 - t524;
        const Q t527 = shuffled<0, 1, 6, 7>(t525, t526);
        io.pairs(0, 1, t527);
        const Q t528 = shuffled<0, 1, 6, 7>(t526, t525);
        io.pairs(31, 32, t528);
        // spectrum block of 2
        const Q t529 = t481 - t488;
        const P t530 = part<0>(t529);
        const P t531 = part<1>(t529);
        // complex block of 2
        const P t532 = t530 + t531;
        io.pair(30, t532);
        const P t533 = t530 - t531;
        io.pair(61, t533);
        // spectrum block of 2
        const Q t534 = t490 + t502;
        const P t535 = shuffled<0, 2>(t472, t474);
        const P t536 = shuffled<1, 3>(t472, t474);
        const Q t537 = joined(t535, t536);
        // spectrum block of 2
        const Q t538 = t498 - t537;
        const Q t539 = shuffled<0, 1, 4, 5>(t534, t538);
        const Q t540 = shuffled<2, 3, 6, 7>(t534, t538);
        // complex block of 2
        const Q t541 = t539 + t540;
        const Q t542 = t539 - t540;
        const Q t543 = shuffled<0, 1, 6, 7>(t541, t542);
        io.pairs(10, 11, t543);
        const Q t544 = shuffled<0, 1, 6, 7>(t542, t541);
        io.pairs(41, 42, t544);
        // spectrum block of 2
        const Q t545 = t490 - t502;
        // spectrum block of 2
        const Q t546 = t498 + t537;
        const Q t547 = shuffled<0, 1, 4, 5>(t546, t545);
        const Q t548 = shuffled<2, 3, 6, 7>(t546, t545);
        // complex block of 2
        const Q t549 = t547 + t548;
        const Q t550 = t547 - t548;
        const Q t551 = shuffled<0, 1, 6, 7>(t549, t550);
        io.pairs(20, 21, t551);
        const Q t552 = shuffled<0, 1, 6, 7>(t550, t549);
        io.pairs(51, 52, t552);
        // spectrum block of 5
        const Q t553 = c[1] * t407;
        const P t554 = part<0>(t553);
        const P t555 = part<1>(t553);
        const P t556 = shuffled<0, 2>(t554, t555);
        const P t557 = t453 - t556;
        const P t558 = shuffled<1, 3>(t554, t555);
        const Q t559 = c[0] * t414;
        const P t560 = part<0>(t559);
        const P t561 = part<1>(t559);
        const P t562 = shuffled<1, 3>(t560, t561);
        // spectrum block of 5
        const P t563 = t558 + t562;
        const P t564 = shuffled<0, 2>(t557, t563);
        const P t565 = shuffled<1, 3>(t557, t563);
        const Q t566 = joined(t564, t565);
        const Q t567 = shuffled<0, 5, 2, 7>(t559, t419);
        // spectrum block of 5
        const Q t568 = t566 + t567;
        const Q t569 = c[3] * t424;
        const Q t570 = Q(c[2], -c[2], c[2], -c[2]) * t431;
        const Q t571 = t569 + t570;
        const Q t572 = flipped<0, 1, 0, 1>(t571);
        const Q t573 = t568 + t572;
        const Q t574 = t568 - t572;
        // spectrum block of 5
        const Q t575 = t308 + t232;
        // spectrum block of 5
        const Q t576 = t436 + t482;
        // spectrum block of 2
        const Q t577 = t575 + t576;
        const Q t578 = t575 - t576;
        // spectrum block of 5
        const Q t579 = c[0] * t244;
        const Q t580 = t313 + t579;
        const Q t581 = c[2] * t286;
        const Q t582 = c[3] * t297;
        const Q t583 = t581 - t582;
        const Q t584 = t580 - t583;
        const Q t585 = t580 + t583;
        // spectrum block of 5
        const Q t586 = c[0] * t362;
        const Q t587 = flipped<0, 1, 0, 1>(t441);
        const Q t588 = t586 + t587;
        const Q t589 = c[3] * t434;
        const Q t590 = c[2] * t435;
        const Q t591 = t589 - t590;
        const Q t592 = t588 - t591;
        const Q t593 = t588 + t591;
        // spectrum block of 5
        const Q t594 = c[1] * t295;
        const Q t595 = t284 - t594;
        const Q t596 = c[0] * t306;
        const Q t597 = t595 + t596;
        const Q t598 = c[2] * t290;
        const Q t599 = c[3] * t301;
        const Q t600 = t598 - t599;
        const Q t601 = t597 - t600;
        const Q t602 = t597 + t600;
        // spectrum block of 5
        const Q t603 = t296 + t307;
        const Q t604 = t603 + t285;
        const Q t605 = c[1] * t296;
        const Q t606 = t285 - t605;
        const Q t607 = c[0] * t307;
        const Q t608 = t606 + t607;
        const Q t609 = c[2] * t291;
        const Q t610 = c[3] * t302;
        const Q t611 = t609 - t610;
        const Q t612 = t608 - t611;
        const Q t613 = t608 + t611;
        // spectrum block of 5
        const Q t614 = t410 + t415;
        const Q t615 = t614 + t420;
        const Q t616 = c[1] * t410;
        const Q t617 = t420 - t616;
        const Q t618 = c[0] * t415;
        const Q t619 = t617 + t618;
        const Q t620 = c[3] * t427;
        const Q t621 = c[2] * t432;
        const Q t622 = t620 - t621;
        const Q t623 = t619 - t622;
        const Q t624 = t619 + t622;
        // spectrum block of 2
        const Q t625 = t584 + t592;
        // spectrum block of 2
        const Q t626 = t601 + t573;
        const Q t627 = shuffled<0, 1, 4, 5>(t625, t626);
        const Q t628 = shuffled<2, 3, 6, 7>(t625, t626);
        // complex block of 2
        const Q t629 = t627 + t628;
        const Q t630 = t627 - t628;
        const Q t631 = shuffled<0, 1, 6, 7>(t629, t630);
        io.pairs(8, 9, t631);
        const Q t632 = shuffled<0, 1, 6, 7>(t630, t629);
        io.pairs(39, 40, t632);
        // spectrum block of 2
        const Q t633 = t584 - t592;
        // spectrum block of 2
        const Q t634 = t601 - t573;
        const Q t635 = shuffled<0, 1, 4, 5>(t634, t633);
        const Q t636 = shuffled<2, 3, 6, 7>(t634, t633);
        // complex block of 2
        const Q t637 = t635 + t636;
        const Q t638 = t635 - t636;
        const Q t639 = shuffled<0, 1, 6, 7>(t637, t638);
        io.pairs(22, 23, t639);
        const Q t640 = shuffled<0, 1, 6, 7>(t638, t637);
        io.pairs(53, 54, t640);
        // spectrum block of 2
        const Q t641 = t585 + t593;
        // spectrum block of 2
        const Q t642 = t612 - t623;
        const Q t643 = shuffled<0, 1, 4, 5>(t641, t642);
        const Q t644 = shuffled<2, 3, 6, 7>(t641, t642);
        // complex block of 2
        const Q t645 = t643 + t644;
        const Q t646 = t643 - t644;
        const Q t647 = shuffled<0, 1, 6, 7>(t645, t646);
        io.pairs(16, 17, t647);
        const Q t648 = shuffled<0, 1, 6, 7>(t646, t645);
        io.pairs(47, 48, t648);
        // spectrum block of 2
        const Q t649 = t585 - t593;
        // spectrum block of 2
        const Q t650 = t612 + t623;
        const Q t651 = shuffled<0, 1, 4, 5>(t650, t649);
        const Q t652 = shuffled<2, 3, 6, 7>(t650, t649);
        // complex block of 2
        const Q t653 = t651 + t652;
        const Q t654 = t651 - t652;
        const Q t655 = shuffled<0, 1, 6, 7>(t653, t654);
        io.pairs(14, 15, t655);
        const Q t656 = shuffled<0, 1, 6, 7>(t654, t653);
        io.pairs(45, 46, t656);
        // spectrum block of 2
        const Q t657 = t602 + t574;
        // spectrum block of 2
        const Q t658 = t604 + t615;
        const Q t659 = shuffled<0, 1, 4, 5>(t657, t658);
        const Q t660 = shuffled<2, 3, 6, 7>(t657, t658);
        // complex block of 2
        const Q t661 = t659 + t660;
        const Q t662 = t659 - t660;
        const Q t663 = shuffled<0, 1, 6, 7>(t661, t662);
        io.pairs(18, 19, t663);
        const Q t664 = shuffled<0, 1, 6, 7>(t662, t661);
        io.pairs(49, 50, t664);
        // spectrum block of 2
        const Q t665 = t602 - t574;
        // spectrum block of 2
        const Q t666 = t604 - t615;
        const Q t667 = shuffled<0, 1, 4, 5>(t666, t665);
        const Q t668 = shuffled<2, 3, 6, 7>(t666, t665);
        // complex block of 2
        const Q t669 = t667 + t668;
        const Q t670 = t667 - t668;
        const Q t671 = shuffled<0, 1, 6, 7>(t669, t670);
        io.pairs(12, 13, t671);
        const Q t672 = shuffled<0, 1, 6, 7>(t670, t669);
        io.pairs(43, 44, t672);
        // spectrum block of 2
        const Q t673 = t613 + t624;
        const Q t674 = shuffled<0, 1, 4, 5>(t673, t578);
        const Q t675 = shuffled<2, 3, 6, 7>(t673, t578);
        // complex block of 2
        const Q t676 = t674 + t675;
        const Q t677 = t674 - t675;
        const Q t678 = shuffled<0, 1, 6, 7>(t676, t677);
        io.pairs(28, 29, t678);
        const Q t679 = shuffled<0, 1, 6, 7>(t677, t676);
        io.pairs(59, 60, t679);
        // spectrum block of 2
        const Q t680 = t613 - t624;
        const Q t681 = shuffled<0, 1, 4, 5>(t577, t680);
        const Q t682 = shuffled<2, 3, 6, 7>(t577, t680);
        // complex block of 2
        const Q t683 = t681 + t682;
        const Q t684 = t681 - t682;
        const Q t685 = shuffled<0, 1, 6, 7>(t683, t684);
        io.pairs(2, 3, t685);
        const Q t686 = shuffled<0, 1, 6, 7>(t684, t683);
        io.pairs(33, 34, t686);
        // spectrum block of 5
        const Q t687 = c[0] * t296;
        const Q t688 = c[1] * t307;
        const Q t689 = t687 - t688;
        const Q t690 = t689 + t285;
        const Q t691 = c[3] * t291;
        const Q t692 = c[2] * t302;
        const Q t693 = t691 + t692;
        const Q t694 = t690 - t693;
        const Q t695 = t690 + t693;
        // spectrum block of 5
        const Q t696 = c[0] * t410;
        const Q t697 = c[1] * t415;
        const Q t698 = t696 - t697;
        const Q t699 = t698 + t420;
        const Q t700 = c[3] * t432;
        const Q t701 = c[2] * t427;
        const Q t702 = t700 + t701;
        const Q t703 = t699 + t702;
        const Q t704 = t699 - t702;
        // spectrum block of 2
        const Q t705 = t694 + t703;
        // spectrum block of 2
        const Q t706 = t695 - t704;
        const Q t707 = shuffled<0, 1, 4, 5>(t706, t705);
        const Q t708 = shuffled<2, 3, 6, 7>(t706, t705);
        // complex block of 2
        const Q t709 = t707 + t708;
        const Q t710 = t707 - t708;
        const Q t711 = shuffled<0, 1, 6, 7>(t709, t710);
        io.pairs(6, 7, t711);
        const Q t712 = shuffled<0, 1, 6, 7>(t710, t709);
        io.pairs(37, 38, t712);
        // spectrum block of 2
        const Q t713 = t694 - t703;
        // spectrum block of 2
        const Q t714 = t695 + t704;
        const Q t715 = shuffled<0, 1, 4, 5>(t713, t714);
        const Q t716 = shuffled<2, 3, 6, 7>(t713, t714);
        // complex block of 2
        const Q t717 = t715 + t716;
        const Q t718 = t715 - t716;
        const Q t719 = shuffled<0, 1, 6, 7>(t717, t718);
        io.pairs(24, 25, t719);
        const Q t720 = shuffled<0, 1, 6, 7>(t718, t717);
        io.pairs(55, 56, t720);
    }
};

}  // namespace zulg
