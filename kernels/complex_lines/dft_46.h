// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 46.
// Complex DFT of 46 points, prime-factor, order 23, 2; two lines of a stage to a register.
// 202 sums, 144 differences, 242 products of registers, which do the 2440 steps of the graph, those with
// `scale` included; 60 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<46> {
    static constexpr int steps = 2440;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.41541501300188644,  // c[4]: cos 2 pi 2/11
        0.6548607339452851,  // c[5]: -cos 2 pi 18/11
        0.9594929736144974,  // c[6]: -cos 2 pi 6/11
        0.7557495743542583,  // c[7]: -sin 2 pi 18/11
        0.28173255684142967,  // c[8]: -sin 2 pi 6/11
        0.14231483827328514,  // c[9]: -cos 2 pi 8/11
        0.9898214418809327,  // c[10]: -sin 2 pi 8/11
        0.5406408174555976,  // c[11]: sin 2 pi 12/11
        0.8412535328311812,  // c[12]: cos 2 pi 12/11
        0.9096319953545183,  // c[13]: sin 2 pi 2/11
        0.5457579199356125,  // c[14]: P[2] of 11
        0.3770255864361907,  // c[15]: -Q[2] of 11
        0.6150936508690751,  // c[16]: -Q[3] of 11
        0.24831391555962465,  // c[17]: -P[3] of 11
        0.21879791731559586,  // c[18]: P[1] of 11
        0.6262008235209833,  // c[19]: -Q[1] of 11
        0.6626305969383026,  // c[20]: -Q[4] of 11
        0.030342906933726127,  // c[21]: -P[4] of 11
        0.4130101145562366,  // c[22]: P[2] of 23
        0.1396613400420585,  // c[23]: Q[2] of 23
        0.07284077652875139,  // c[24]: -P[4] of 23
        0.42985679697172136,  // c[25]: -Q[4] of 23
        0.4006581594304406,  // c[26]: P[10] of 23
        0.1719176660785936,  // c[27]: Q[10] of 23
        0.3397700700904962,  // c[28]: -Q[6] of 23
        0.2732012886111602,  // c[29]: -P[6] of 23
        0.4322477411542684,  // c[30]: P[8] of 23
        0.05696081894716527,  // c[31]: Q[8] of 23
        0.15475065017493012,  // c[32]: -Q[9] of 23
        0.4075964682115579,  // c[33]: -P[9] of 23
        0.17418154463549565,  // c[34]: -P[1] of 23
        0.39967916400094217,  // c[35]: Q[1] of 23
        0.3941449686576057,  // c[36]: -Q[7] of 23
        0.1863662746045921,  // c[37]: P[7] of 23
        0.3222553093449257,  // c[38]: Q[3] of 23
        0.2936565344532715,  // c[39]: P[3] of 23
        0.4166015292602189,  // c[40]: -P[5] of 23
        0.12855275355334153,  // c[41]: Q[5] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x24_1 = io.pairs(24, 1);
        const Q x22_45 = io.pairs(22, 45);
        // real block of 2
        const Q t0 = x24_1 + x22_45;
        const Q t1 = x24_1 - x22_45;
        const Q x4_27 = io.pairs(4, 27);
        const Q x42_19 = io.pairs(42, 19);
        // real block of 2
        const Q t2 = x4_27 + x42_19;
        const Q t3 = x4_27 - x42_19;
        // real block of 11, multiplier 2
        const Q t4 = t2 + t0;
        const Q t5 = t2 - t0;
        // real block of 11, multiplier 2
        const Q t6 = t3 + t1;
        const Q t7 = t3 - t1;
        const Q x2_25 = io.pairs(2, 25);
        const Q x44_21 = io.pairs(44, 21);
        // real block of 2
        const Q t8 = x2_25 + x44_21;
        const Q t9 = x2_25 - x44_21;
        const Q x26_3 = io.pairs(26, 3);
        const Q x20_43 = io.pairs(20, 43);
        // real block of 2
        const Q t10 = x26_3 + x20_43;
        const Q t11 = x26_3 - x20_43;
        const Q x32_9 = io.pairs(32, 9);
        const Q x14_37 = io.pairs(14, 37);
        // real block of 2
        const Q t12 = x32_9 + x14_37;
        const Q t13 = x32_9 - x14_37;
        // real block of 11, multiplier 2
        const Q t14 = t12 - t10;
        // real block of 11, multiplier 2
        const Q t15 = t13 - t11;
        const Q x6_29 = io.pairs(6, 29);
        const Q x40_17 = io.pairs(40, 17);
        // real block of 2
        const Q t16 = x6_29 + x40_17;
        const Q t17 = x6_29 - x40_17;
        const Q x16_39 = io.pairs(16, 39);
        const Q x30_7 = io.pairs(30, 7);
        // real block of 2
        const Q t18 = x16_39 + x30_7;
        const Q t19 = x16_39 - x30_7;
        // real block of 11, multiplier 2
        const Q t20 = t18 + t16;
        const Q t21 = t18 - t16;
        // real block of 11, multiplier 2
        const Q t22 = t19 + t17;
        const Q t23 = t19 - t17;
        const Q x8_31 = io.pairs(8, 31);
        const Q x38_15 = io.pairs(38, 15);
        // real block of 2
        const Q t24 = x8_31 + x38_15;
        const Q t25 = x8_31 - x38_15;
        const Q x12_35 = io.pairs(12, 35);
        const Q x34_11 = io.pairs(34, 11);
        // real block of 2
        const Q t26 = x12_35 + x34_11;
        const Q t27 = x12_35 - x34_11;
        // real block of 11, multiplier 2
        const Q t28 = t26 + t24;
        const Q t29 = t26 - t24;
        // real block of 11, multiplier 2
        const Q t30 = t27 + t25;
        const Q t31 = t27 - t25;
        // real block of 11, multiplier 2
        const Q t32 = t12 + t10;
        const Q t33 = t4 + t28;
        const Q t34 = t33 + t20;
        const Q t35 = c[4] * t4;
        const Q t36 = c[5] * t28;
        const Q t37 = t35 - t36;
        const Q t38 = c[6] * t20;
        const Q t39 = t37 - t38;
        const Q t40 = c[7] * t29;
        const Q t41 = c[8] * t21;
        const Q t42 = t40 + t41;
        const Q t43 = c[5] * t4;
        const Q t44 = t8 - t43;
        const Q t45 = c[9] * t28;
        const Q t46 = t44 - t45;
        const Q t47 = c[7] * t5;
        const Q t48 = c[10] * t29;
        const Q t49 = t47 + t48;
        const Q t50 = c[11] * t21;
        const Q t51 = t49 + t50;
        const Q t52 = c[6] * t4;
        const Q t53 = t8 - t52;
        const Q t54 = c[12] * t28;
        const Q t55 = t53 + t54;
        const Q t56 = c[8] * t5;
        const Q t57 = c[11] * t29;
        const Q t58 = t56 + t57;
        const Q t59 = c[7] * t21;
        const Q t60 = t58 + t59;
        const Q t61 = c[9] * t4;
        const Q t62 = t8 - t61;
        const Q t63 = c[6] * t28;
        const Q t64 = t62 - t63;
        const Q t65 = c[10] * t5;
        const Q t66 = c[8] * t29;
        const Q t67 = t65 + t66;
        const Q t68 = c[11] * t14;
        const Q t69 = t67 + t68;
        const Q t70 = c[12] * t4;
        const Q t71 = c[4] * t28;
        const Q t72 = t70 + t71;
        const Q t73 = c[9] * t20;
        const Q t74 = t72 - t73;
        const Q t75 = c[11] * t5;
        const Q t76 = c[10] * t21;
        const Q t77 = t75 + t76;
        const Q t78 = c[7] * t14;
        const Q t79 = t77 + t78;
        // real block of 11, multiplier 2
        const Q t80 = t13 + t11;
        const Q t81 = t6 + t30;
        const Q t82 = c[4] * t6;
        const Q t83 = c[5] * t30;
        const Q t84 = t82 - t83;
        const Q t85 = c[6] * t22;
        const Q t86 = t84 - t85;
        const Q t87 = c[7] * t31;
        const Q t88 = c[8] * t23;
        const Q t89 = t87 + t88;
        const Q t90 = c[5] * t6;
        const Q t91 = t9 - t90;
        const Q t92 = c[9] * t30;
        const Q t93 = t91 - t92;
        const Q t94 = c[7] * t7;
        const Q t95 = c[10] * t31;
        const Q t96 = t94 + t95;
        const Q t97 = c[11] * t23;
        const Q t98 = t96 + t97;
        const Q t99 = c[6] * t6;
        const Q t100 = t9 - t99;
        const Q t101 = c[12] * t30;
        const Q t102 = t100 + t101;
        const Q t103 = c[8] * t7;
        const Q t104 = c[11] * t31;
        const Q t105 = t103 + t104;
        const Q t106 = c[7] * t23;
        const Q t107 = t105 + t106;
        const Q t108 = c[9] * t6;
        const Q t109 = t9 - t108;
        const Q t110 = c[6] * t30;
        const Q t111 = t109 - t110;
        const Q t112 = c[10] * t7;
        const Q t113 = c[8] * t31;
        const Q t114 = t112 + t113;
        const Q t115 = c[11] * t15;
        const Q t116 = t114 + t115;
        const Q t117 = c[12] * t6;
        const Q t118 = c[4] * t30;
        const Q t119 = t117 + t118;
        const Q t120 = c[9] * t22;
        const Q t121 = t119 - t120;
        const Q t122 = c[11] * t7;
        const Q t123 = c[10] * t23;
        const Q t124 = t122 + t123;
        const Q t125 = c[7] * t15;
        const Q t126 = t124 + t125;
        const Q x18_41 = io.pairs(18, 41);
        const Q x28_5 = io.pairs(28, 5);
        // real block of 2
        const Q t127 = x18_41 + x28_5;
        const Q t128 = x18_41 - x28_5;
        const Q x36_13 = io.pairs(36, 13);
        const Q x10_33 = io.pairs(10, 33);
        // real block of 2
        const Q t129 = x36_13 + x10_33;
        const Q t130 = x36_13 - x10_33;
        // real block of 11, multiplier 2
        const Q t131 = t129 + t127;
        const Q t132 = t129 - t127;
        // real block of 11, multiplier 2
        const Q t133 = t130 + t128;
        const Q t134 = t130 - t128;
        // real block of 11, multiplier 2
        const Q t135 = t34 + t32;
        const Q t136 = t135 + t131;
        const Q t137 = t136 + t8;
        const Q t138 = c[9] * t32;
        const Q t139 = t39 - t138;
        const Q t140 = c[12] * t131;
        const Q t141 = t139 + t140;
        const Q t142 = t141 + t8;
        const Q t143 = c[10] * t14;
        const Q t144 = t42 + t143;
        const Q t145 = c[13] * t5;
        const Q t146 = t144 - t145;
        const Q t147 = c[11] * t132;
        const Q t148 = t146 - t147;
        // complex block of 23, multiplier 2
        const Q t149 = c[22] * t142;
        const Q t150 = c[23] * t148;
        const Q t151 = t149 - t150;
        const Q t152 = c[22] * t148;
        const Q t153 = c[23] * t142;
        const Q t154 = t152 + t153;
        // real block of 11, multiplier 2
        const Q t155 = c[12] * t20;
        const Q t156 = t46 + t155;
        const Q t157 = c[6] * t32;
        const Q t158 = t156 - t157;
        const Q t159 = c[4] * t131;
        const Q t160 = t158 + t159;
        const Q t161 = c[8] * t14;
        const Q t162 = t51 + t161;
        const Q t163 = c[13] * t132;
        const Q t164 = t162 + t163;
        const Q t165 = c[5] * t32;
        const Q t166 = t74 - t165;
        const Q t167 = c[6] * t131;
        const Q t168 = t166 - t167;
        const Q t169 = t168 + t8;
        const Q t170 = c[13] * t29;
        const Q t171 = t79 - t170;
        const Q t172 = c[8] * t132;
        const Q t173 = t171 - t172;
        // complex block of 23, multiplier 2
        const Q t174 = c[24] * t160;
        const Q t175 = c[25] * t164;
        const Q t176 = t174 + t175;
        const Q t177 = c[26] * t169;
        const Q t178 = c[27] * t173;
        const Q t179 = t177 - t178;
        // real block of 5
        const Q t180 = t179 - t176;
        const Q t181 = t176 + t179;
        // complex block of 23, multiplier 2
        const Q t182 = c[24] * t164;
        const Q t183 = c[25] * t160;
        const Q t184 = t182 - t183;
        const Q t185 = c[26] * t173;
        const Q t186 = c[27] * t169;
        const Q t187 = t185 + t186;
        // real block of 5
        const Q t188 = t187 - t184;
        const Q t189 = t184 + t187;
        // real block of 11, multiplier 2
        const Q t190 = c[5] * t20;
        const Q t191 = t55 - t190;
        const Q t192 = c[4] * t32;
        const Q t193 = t191 + t192;
        const Q t194 = c[9] * t131;
        const Q t195 = t193 - t194;
        const Q t196 = c[13] * t14;
        const Q t197 = t60 - t196;
        const Q t198 = c[10] * t132;
        const Q t199 = t197 - t198;
        const Q t200 = c[4] * t20;
        const Q t201 = t64 + t200;
        const Q t202 = c[12] * t32;
        const Q t203 = t201 + t202;
        const Q t204 = c[5] * t131;
        const Q t205 = t203 - t204;
        const Q t206 = c[13] * t21;
        const Q t207 = t69 - t206;
        const Q t208 = c[7] * t132;
        const Q t209 = t207 - t208;
        // complex block of 23, multiplier 2
        const Q t210 = c[28] * t199;
        const Q t211 = c[29] * t195;
        const Q t212 = t210 - t211;
        const Q t213 = c[30] * t205;
        const Q t214 = c[31] * t209;
        const Q t215 = t213 - t214;
        // real block of 5
        const Q t216 = t212 + t215;
        const Q t217 = t212 - t215;
        // complex block of 23, multiplier 2
        const Q t218 = c[29] * t199;
        const Q t219 = c[28] * t195;
        const Q t220 = t218 + t219;
        const Q t221 = c[30] * t209;
        const Q t222 = c[31] * t205;
        const Q t223 = t221 + t222;
        // real block of 5
        const Q t224 = t223 - t220;
        const Q t225 = t220 + t223;
        // real block of 11, multiplier 2
        const Q t226 = t81 + t22;
        const Q t227 = t226 + t80;
        const Q t228 = t227 + t133;
        const Q t229 = t228 + t9;
        const Q t230 = c[9] * t80;
        const Q t231 = t86 - t230;
        const Q t232 = c[12] * t133;
        const Q t233 = t231 + t232;
        const Q t234 = t233 + t9;
        const Q t235 = c[10] * t15;
        const Q t236 = t89 + t235;
        const Q t237 = c[13] * t7;
        const Q t238 = t236 - t237;
        const Q t239 = c[11] * t134;
        const Q t240 = t238 - t239;
        const Q t241 = shuffled<1, 0, 3, 2>(t234);
        // complex block of 23, multiplier 2
        const Q t242 = c[32] * t241;
        const Q t243 = shuffled<1, 0, 3, 2>(t240);
        const Q t244 = c[33] * t243;
        const Q t245 = t242 + t244;
        const Q t246 = Q(-c[33], c[33], -c[33], c[33]) * t241;
        const Q t247 = Q(c[32], -c[32], c[32], -c[32]) * t243;
        const Q t248 = t246 + t247;
        // real block of 11, multiplier 2
        const Q t249 = c[12] * t22;
        const Q t250 = t93 + t249;
        const Q t251 = c[6] * t80;
        const Q t252 = t250 - t251;
        const Q t253 = c[4] * t133;
        const Q t254 = t252 + t253;
        const Q t255 = c[8] * t15;
        const Q t256 = t98 + t255;
        const Q t257 = c[13] * t134;
        const Q t258 = t256 + t257;
        const Q t259 = c[5] * t80;
        const Q t260 = t121 - t259;
        const Q t261 = c[6] * t133;
        const Q t262 = t260 - t261;
        const Q t263 = t262 + t9;
        const Q t264 = c[13] * t31;
        const Q t265 = t126 - t264;
        const Q t266 = c[8] * t134;
        const Q t267 = t265 - t266;
        const Q t268 = shuffled<1, 0, 3, 2>(t267);
        // complex block of 23, multiplier 2
        const Q t269 = Q(-c[34], c[34], -c[34], c[34]) * t268;
        const Q t270 = shuffled<1, 0, 3, 2>(t263);
        const Q t271 = Q(c[35], -c[35], c[35], -c[35]) * t270;
        const Q t272 = t269 + t271;
        const Q t273 = shuffled<1, 0, 3, 2>(t254);
        const Q t274 = c[36] * t273;
        const Q t275 = shuffled<1, 0, 3, 2>(t258);
        const Q t276 = c[37] * t275;
        const Q t277 = t274 + t276;
        const Q t278 = flipped<1, 0, 1, 0>(t277);
        // real block of 5
        const Q t279 = t278 + t272;
        const Q t280 = flipped<0, 1, 0, 1>(t272);
        const Q t281 = t277 + t280;
        // complex block of 23, multiplier 2
        const Q t282 = c[35] * t268;
        const Q t283 = c[34] * t270;
        const Q t284 = t282 + t283;
        const Q t285 = Q(-c[36], c[36], -c[36], c[36]) * t275;
        const Q t286 = Q(c[37], -c[37], c[37], -c[37]) * t273;
        const Q t287 = t285 + t286;
        const Q t288 = flipped<0, 1, 0, 1>(t284);
        // real block of 5
        const Q t289 = t287 + t288;
        const Q t290 = t287 - t288;
        // real block of 11, multiplier 2
        const Q t291 = c[5] * t22;
        const Q t292 = t102 - t291;
        const Q t293 = c[4] * t80;
        const Q t294 = t292 + t293;
        const Q t295 = c[9] * t133;
        const Q t296 = t294 - t295;
        const Q t297 = c[13] * t15;
        const Q t298 = t107 - t297;
        const Q t299 = c[10] * t134;
        const Q t300 = t298 - t299;
        const Q t301 = c[4] * t22;
        const Q t302 = t111 + t301;
        const Q t303 = c[12] * t80;
        const Q t304 = t302 + t303;
        const Q t305 = c[5] * t133;
        const Q t306 = t304 - t305;
        const Q t307 = c[13] * t23;
        const Q t308 = t116 - t307;
        const Q t309 = c[7] * t134;
        const Q t310 = t308 - t309;
        const Q t311 = shuffled<1, 0, 3, 2>(t306);
        // complex block of 23, multiplier 2
        const Q t312 = c[38] * t311;
        const Q t313 = shuffled<1, 0, 3, 2>(t310);
        const Q t314 = c[39] * t313;
        const Q t315 = t312 + t314;
        const Q t316 = shuffled<1, 0, 3, 2>(t300);
        const Q t317 = Q(-c[40], c[40], -c[40], c[40]) * t316;
        const Q t318 = shuffled<1, 0, 3, 2>(t296);
        const Q t319 = Q(c[41], -c[41], c[41], -c[41]) * t318;
        const Q t320 = t317 + t319;
        const Q t321 = flipped<0, 1, 0, 1>(t315);
        // real block of 5
        const Q t322 = t320 + t321;
        const Q t323 = t320 - t321;
        // complex block of 23, multiplier 2
        const Q t324 = Q(-c[38], c[38], -c[38], c[38]) * t313;
        const Q t325 = Q(c[39], -c[39], c[39], -c[39]) * t311;
        const Q t326 = t324 + t325;
        const Q t327 = c[41] * t316;
        const Q t328 = c[40] * t318;
        const Q t329 = t327 + t328;
        const Q t330 = flipped<1, 0, 1, 0>(t326);
        // real block of 5
        const Q t331 = t329 + t330;
        const Q t332 = flipped<0, 1, 0, 1>(t329);
        const Q t333 = t326 + t332;
        const Q x0_23 = io.pairs(0, 23);
        // complex block of 23, multiplier 2
        const Q t334 = x0_23 + t137;
        const Q t335 = c[44] * t137;
        const Q t336 = x0_23 - t335;
        // real block of 5
        const Q t337 = t180 + t216;
        const Q t338 = t337 + t151;
        // real block of 5
        const Q t339 = t188 + t224;
        const Q t340 = t339 + t154;
        // spectrum block of 11, multiplier 2
        const Q t341 = c[42] * t338;
        const Q t342 = t336 - t341;
        const Q t343 = c[43] * t340;
        // spectrum block of 2
        const Q t344 = t342 + t343;
        const Q t345 = t342 - t343;
        // spectrum block of 11, multiplier 2
        const Q t346 = t336 + t338;
        // real block of 5
        const Q t347 = t279 + t322;
        const Q t348 = flipped<1, 0, 1, 0>(t245);
        const Q t349 = t347 + t348;
        const Q t350 = flipped<0, 1, 0, 1>(t331);
        // real block of 5
        const Q t351 = t289 + t350;
        const Q t352 = t351 - t248;
        const Q t353 = shuffled<1, 0, 3, 2>(t229);
        // complex block of 23, multiplier 2
        const Q t354 = c[45] * t353;
        // spectrum block of 11, multiplier 2
        const Q t355 = Q(-c[42], c[42], -c[42], c[42]) * t349;
        const Q t356 = t354 + t355;
        const Q t357 = c[43] * t352;
        const Q t358 = flipped<0, 1, 0, 1>(t356);
        // spectrum block of 2
        const Q t359 = t357 + t358;
        const Q t360 = flipped<1, 0, 1, 0>(t357);
        const Q t361 = t356 + t360;
        const Q t362 = flipped<0, 1, 0, 1>(t354);
        // spectrum block of 11, multiplier 2
        const Q t363 = t349 + t362;
        // real block of 5
        const Q t364 = c[0] * t180;
        const Q t365 = c[1] * t216;
        const Q t366 = t364 - t365;
        const Q t367 = t366 + t151;
        const Q t368 = c[2] * t181;
        const Q t369 = c[3] * t217;
        const Q t370 = t368 + t369;
        // real block of 5
        const Q t371 = c[0] * t188;
        const Q t372 = c[1] * t224;
        const Q t373 = t371 - t372;
        const Q t374 = t373 + t154;
        const Q t375 = c[2] * t189;
        const Q t376 = c[3] * t225;
        const Q t377 = t375 - t376;
        // spectrum block of 11, multiplier 2
        const Q t378 = c[14] * t367;
        const Q t379 = c[15] * t370;
        const Q t380 = t378 + t379;
        const Q t381 = c[16] * t374;
        const Q t382 = c[17] * t377;
        const Q t383 = t381 + t382;
        // complex block of 2
        const Q t384 = t380 - t383;
        const Q t385 = t380 + t383;
        // spectrum block of 11, multiplier 2
        const Q t386 = c[14] * t370;
        const Q t387 = c[15] * t367;
        const Q t388 = t386 - t387;
        const Q t389 = c[16] * t377;
        const Q t390 = c[17] * t374;
        const Q t391 = t389 - t390;
        // complex block of 2
        const Q t392 = t388 - t391;
        const Q t393 = t388 + t391;
        // real block of 5
        const Q t394 = c[1] * t180;
        const Q t395 = t151 - t394;
        const Q t396 = c[0] * t216;
        const Q t397 = t395 + t396;
        const Q t398 = c[3] * t181;
        const Q t399 = c[2] * t217;
        const Q t400 = t398 - t399;
        // real block of 5
        const Q t401 = c[1] * t188;
        const Q t402 = t154 - t401;
        const Q t403 = c[0] * t224;
        const Q t404 = t402 + t403;
        const Q t405 = c[3] * t189;
        const Q t406 = c[2] * t225;
        const Q t407 = t405 + t406;
        // spectrum block of 11, multiplier 2
        const Q t408 = c[18] * t407;
        const Q t409 = c[19] * t404;
        const Q t410 = t408 - t409;
        const Q t411 = c[20] * t400;
        const Q t412 = c[21] * t397;
        const Q t413 = t411 - t412;
        // complex block of 2
        const Q t414 = t413 + t410;
        const Q t415 = t413 - t410;
        // spectrum block of 11, multiplier 2
        const Q t416 = c[19] * t407;
        const Q t417 = c[18] * t404;
        const Q t418 = t416 + t417;
        const Q t419 = c[21] * t400;
        const Q t420 = c[20] * t397;
        const Q t421 = t419 + t420;
        // complex block of 2
        const Q t422 = t421 + t418;
        const Q t423 = t418 - t421;
        // real block of 5
        const Q t424 = c[0] * t279;
        const Q t425 = c[1] * t322;
        const Q t426 = t424 - t425;
        const Q t427 = t426 + t348;
        const Q t428 = c[3] * t323;
        const Q t429 = Q(c[2], -c[2], c[2], -c[2]) * t281;
        const Q t430 = t428 + t429;
        // real block of 5
        const Q t431 = c[0] * t289;
        const Q t432 = Q(-c[1], c[1], -c[1], c[1]) * t331;
        const Q t433 = t431 + t432;
        const Q t434 = t433 - t248;
        const Q t435 = c[3] * t333;
        const Q t436 = c[2] * t290;
        const Q t437 = t435 - t436;
        // spectrum block of 11, multiplier 2
        const Q t438 = c[14] * t427;
        const Q t439 = c[15] * t430;
        const Q t440 = t438 + t439;
        const Q t441 = c[16] * t434;
        const Q t442 = c[17] * t437;
        const Q t443 = t441 + t442;
        // complex block of 2
        const Q t444 = t440 - t443;
        const Q t445 = t440 + t443;
        // spectrum block of 11, multiplier 2
        const Q t446 = c[14] * t430;
        const Q t447 = c[15] * t427;
        const Q t448 = t446 - t447;
        const Q t449 = c[16] * t437;
        const Q t450 = c[17] * t434;
        const Q t451 = t449 - t450;
        // complex block of 2
        const Q t452 = t448 - t451;
        const Q t453 = t448 + t451;
        // real block of 5
        const Q t454 = Q(c[1], -c[1], c[1], -c[1]) * t279;
        const Q t455 = t245 + t454;
        const Q t456 = flipped<1, 0, 1, 0>(t455);
        const Q t457 = c[0] * t322;
        const Q t458 = t456 + t457;
        const Q t459 = c[3] * t281;
        const Q t460 = Q(-c[2], c[2], -c[2], c[2]) * t323;
        const Q t461 = t459 + t460;
        // real block of 5
        const Q t462 = c[1] * t289;
        const Q t463 = t248 + t462;
        const Q t464 = flipped<1, 0, 1, 0>(t463);
        const Q t465 = c[0] * t331;
        const Q t466 = t464 + t465;
        const Q t467 = c[3] * t290;
        const Q t468 = c[2] * t333;
        const Q t469 = t467 + t468;
        // spectrum block of 11, multiplier 2
        const Q t470 = c[19] * t466;
        const Q t471 = Q(c[18], -c[18], c[18], -c[18]) * t469;
        const Q t472 = t470 + t471;
        const Q t473 = Q(-c[21], c[21], -c[21], c[21]) * t458;
        const Q t474 = c[20] * t461;
        const Q t475 = t473 + t474;
        const Q t476 = shuffled<0, 5, 2, 7>(t475, t472);
        const Q t477 = shuffled<0, 5, 2, 7>(t472, t475);
        // complex block of 2
        const Q t478 = t476 - t477;
        const Q t479 = t475 + t472;
        // spectrum block of 11, multiplier 2
        const Q t480 = Q(-c[19], c[19], -c[19], c[19]) * t469;
        const Q t481 = c[18] * t466;
        const Q t482 = t480 + t481;
        const Q t483 = c[21] * t461;
        const Q t484 = Q(c[20], -c[20], c[20], -c[20]) * t458;
        const Q t485 = t483 + t484;
        // complex block of 2
        const Q t486 = t485 + t482;
        const Q t487 = shuffled<0, 5, 2, 7>(t482, t485);
        const Q t488 = shuffled<0, 5, 2, 7>(t485, t482);
        const Q t489 = t487 - t488;
        // spectrum block of 5, multiplier 2
        const Q t490 = t384 + t414;
        const Q t491 = t490 + t344;
        // spectrum block of 5, multiplier 2
        const Q t492 = t444 + t478;
        const Q t493 = t492 + t359;
        // spectrum block of 2
        const Q t494 = t491 + t493;
        const Q t495 = shuffled<0, 1, 4, 5>(t334, t494);
        const Q t496 = shuffled<2, 3, 6, 7>(t334, t494);
        // complex block of 2
        const Q t497 = t495 + t496;
        const Q t498 = t495 - t496;
        const Q t499 = shuffled<0, 1, 6, 7>(t497, t498);
        io.pairs(0, 1, t499);
        const Q t500 = shuffled<0, 1, 6, 7>(t498, t497);
        io.pairs(23, 24, t500);
        // spectrum block of 2
        const Q t501 = t491 - t493;
        const P t502 = part<0>(t501);
        const P t503 = part<1>(t501);
        // complex block of 2
        const P t504 = t502 + t503;
        io.pair(22, t504);
        const P t505 = t502 - t503;
        io.pair(45, t505);
        // spectrum block of 5, multiplier 2
        const Q t506 = c[0] * t384;
        const Q t507 = c[1] * t414;
        const Q t508 = t506 - t507;
        const Q t509 = t508 + t344;
        const Q t510 = c[2] * t392;
        const Q t511 = c[3] * t422;
        const Q t512 = t510 - t511;
        const Q t513 = c[1] * t384;
        const Q t514 = t344 - t513;
        const Q t515 = c[0] * t414;
        const Q t516 = t514 + t515;
        const Q t517 = c[3] * t392;
        const Q t518 = c[2] * t422;
        const Q t519 = t517 + t518;
        // spectrum block of 5, multiplier 2
        const Q t520 = t385 + t415;
        const Q t521 = t520 + t345;
        const Q t522 = c[0] * t385;
        const Q t523 = c[1] * t415;
        const Q t524 = t522 - t523;
        const Q t525 = t524 + t345;
        const Q t526 = c[2] * t393;
        const Q t527 = c[3] * t423;
        const Q t528 = t526 + t527;
        const Q t529 = c[1] * t385;
        const Q t530 = t345 - t529;
        const Q t531 = c[0] * t415;
        const Q t532 = t530 + t531;
        const Q t533 = c[3] * t393;
        const Q t534 = c[2] * t423;
        const Q t535 = t533 - t534;
        // spectrum block of 5, multiplier 2
        const Q t536 = c[0] * t444;
        const Q t537 = c[1] * t478;
        const Q t538 = t536 - t537;
        const Q t539 = t538 + t359;
        const Q t540 = c[2] * t452;
        const Q t541 = Q(-c[3], c[3], -c[3], c[3]) * t486;
        const Q t542 = t540 + t541;
        const Q t543 = c[1] * t444;
        const Q t544 = t359 - t543;
        const Q t545 = c[0] * t478;
        const Q t546 = t544 + t545;
        const Q t547 = c[3] * t452;
        const Q t548 = Q(c[2], -c[2], c[2], -c[2]) * t486;
        const Q t549 = t547 + t548;
        const Q t550 = flipped<0, 1, 0, 1>(t479);
        // spectrum block of 5, multiplier 2
        const Q t551 = t445 + t550;
        const Q t552 = flipped<0, 1, 0, 1>(t361);
        const Q t553 = t551 + t552;
        const Q t554 = c[0] * t445;
        const Q t555 = Q(-c[1], c[1], -c[1], c[1]) * t479;
        const Q t556 = t554 + t555;
        const Q t557 = t556 + t552;
        const Q t558 = c[2] * t453;
        const Q t559 = c[3] * t489;
        const Q t560 = t558 + t559;
        const Q t561 = Q(-c[1], c[1], -c[1], c[1]) * t445;
        const Q t562 = t361 + t561;
        const Q t563 = c[0] * t479;
        const Q t564 = t562 + t563;
        const Q t565 = c[3] * t453;
        const Q t566 = c[2] * t489;
        const Q t567 = t565 - t566;
        // spectrum block of 2
        const Q t568 = t346 + t363;
        const Q t569 = t346 - t363;
        // spectrum block of 5, multiplier 2
        const Q t570 = t509 - t512;
        // spectrum block of 5, multiplier 2
        const Q t571 = t539 - t542;
        // spectrum block of 2
        const Q t572 = t570 + t571;
        const Q t573 = t570 - t571;
        // spectrum block of 5, multiplier 2
        const Q t574 = t525 + t528;
        // spectrum block of 5, multiplier 2
        const Q t575 = t557 + t560;
        // spectrum block of 2
        const Q t576 = t574 + t575;
        const Q t577 = t574 - t575;
        const Q t578 = shuffled<0, 1, 4, 5>(t573, t577);
        const Q t579 = shuffled<2, 3, 6, 7>(t573, t577);
        // complex block of 2
        const Q t580 = t578 + t579;
        const Q t581 = t578 - t579;
        const Q t582 = shuffled<0, 1, 6, 7>(t580, t581);
        io.pairs(10, 11, t582);
        const Q t583 = shuffled<0, 1, 6, 7>(t581, t580);
        io.pairs(33, 34, t583);
        const Q t584 = shuffled<0, 1, 4, 5>(t576, t572);
        const Q t585 = shuffled<2, 3, 6, 7>(t576, t572);
        // complex block of 2
        const Q t586 = t584 + t585;
        const Q t587 = t584 - t585;
        const Q t588 = shuffled<0, 1, 6, 7>(t586, t587);
        io.pairs(12, 13, t588);
        const Q t589 = shuffled<0, 1, 6, 7>(t587, t586);
        io.pairs(35, 36, t589);
        // spectrum block of 5, multiplier 2
        const Q t590 = t509 + t512;
        // spectrum block of 5, multiplier 2
        const Q t591 = t539 + t542;
        // spectrum block of 2
        const Q t592 = t590 + t591;
        const Q t593 = t590 - t591;
        // spectrum block of 5, multiplier 2
        const Q t594 = t532 + t535;
        const Q t595 = flipped<0, 1, 0, 1>(t564);
        // spectrum block of 5, multiplier 2
        const Q t596 = t567 + t595;
        // spectrum block of 2
        const Q t597 = t594 + t596;
        const Q t598 = t594 - t596;
        const Q t599 = shuffled<0, 1, 4, 5>(t592, t597);
        const Q t600 = shuffled<2, 3, 6, 7>(t592, t597);
        // complex block of 2
        const Q t601 = t599 + t600;
        const Q t602 = t599 - t600;
        const Q t603 = shuffled<0, 1, 6, 7>(t601, t602);
        io.pairs(8, 9, t603);
        const Q t604 = shuffled<0, 1, 6, 7>(t602, t601);
        io.pairs(31, 32, t604);
        const Q t605 = shuffled<0, 1, 4, 5>(t598, t593);
        const Q t606 = shuffled<2, 3, 6, 7>(t598, t593);
        // complex block of 2
        const Q t607 = t605 + t606;
        const Q t608 = t605 - t606;
        const Q t609 = shuffled<0, 1, 6, 7>(t607, t608);
        io.pairs(14, 15, t609);
        const Q t610 = shuffled<0, 1, 6, 7>(t608, t607);
        io.pairs(37, 38, t610);
        // spectrum block of 5, multiplier 2
        const Q t611 = t516 - t519;
        // spectrum block of 5, multiplier 2
        const Q t612 = t546 - t549;
        // spectrum block of 2
        const Q t613 = t611 + t612;
        const Q t614 = t611 - t612;
        // spectrum block of 5, multiplier 2
        const Q t615 = t532 - t535;
        const Q t616 = flipped<1, 0, 1, 0>(t567);
        // spectrum block of 5, multiplier 2
        const Q t617 = t564 + t616;
        const Q t618 = flipped<0, 1, 0, 1>(t617);
        // spectrum block of 2
        const Q t619 = t615 + t618;
        const Q t620 = t615 - t618;
        const Q t621 = shuffled<0, 1, 4, 5>(t613, t620);
        const Q t622 = shuffled<2, 3, 6, 7>(t613, t620);
        // complex block of 2
        const Q t623 = t621 + t622;
        const Q t624 = t621 - t622;
        const Q t625 = shuffled<0, 1, 6, 7>(t623, t624);
        io.pairs(6, 7, t625);
        const Q t626 = shuffled<0, 1, 6, 7>(t624, t623);
        io.pairs(29, 30, t626);
        const Q t627 = shuffled<0, 1, 4, 5>(t619, t614);
        const Q t628 = shuffled<2, 3, 6, 7>(t619, t614);
        // complex block of 2
        const Q t629 = t627 + t628;
        const Q t630 = t627 - t628;
        const Q t631 = shuffled<0, 1, 6, 7>(t629, t630);
        io.pairs(16, 17, t631);
        const Q t632 = shuffled<0, 1, 6, 7>(t630, t629);
        io.pairs(39, 40, t632);
        // spectrum block of 5, multiplier 2
        const Q t633 = t516 + t519;
        // spectrum block of 5, multiplier 2
        const Q t634 = t546 + t549;
        // spectrum block of 2
        const Q t635 = t633 + t634;
        const Q t636 = t633 - t634;
        const Q t637 = shuffled<0, 1, 4, 5>(t568, t635);
        const Q t638 = shuffled<2, 3, 6, 7>(t568, t635);
        // complex block of 2
        const Q t639 = t637 + t638;
        const Q t640 = t637 - t638;
        const Q t641 = shuffled<0, 1, 6, 7>(t639, t640);
        io.pairs(2, 3, t641);
        const Q t642 = shuffled<0, 1, 6, 7>(t640, t639);
        io.pairs(25, 26, t642);
        const Q t643 = shuffled<0, 1, 4, 5>(t636, t569);
        const Q t644 = shuffled<2, 3, 6, 7>(t636, t569);
        // complex block of 2
        const Q t645 = t643 + t644;
        const Q t646 = t643 - t644;
        const Q t647 = shuffled<0, 1, 6, 7>(t645, t646);
        io.pairs(20, 21, t647);
        const Q t648 = shuffled<0, 1, 6, 7>(t646, t645);
        io.pairs(43, 44, t648);
        // spectrum block of 5, multiplier 2
        const Q t649 = t525 - t528;
        // spectrum block of 5, multiplier 2
        const Q t650 = t557 - t560;
        // spectrum block of 2
        const Q t651 = t649 + t650;
        const Q t652 = t649 - t650;
        // spectrum block of 2
        const Q t653 = t521 + t553;
        const Q t654 = t521 - t553;
        const Q t655 = shuffled<0, 1, 4, 5>(t653, t652);
        const Q t656 = shuffled<2, 3, 6, 7>(t653, t652);
        // complex block of 2
        const Q t657 = t655 + t656;
        const Q t658 = t655 - t656;
        const Q t659 = shuffled<0, 1, 6, 7>(t657, t658);
        io.pairs(4, 5, t659);
        const Q t660 = shuffled<0, 1, 6, 7>(t658, t657);
        io.pairs(27, 28, t660);
        const Q t661 = shuffled<0, 1, 4, 5>(t651, t654);
        const Q t662 = shuffled<2, 3, 6, 7>(t651, t654);
        // complex block of 2
        const Q t663 = t661 + t662;
        const Q t664 = t661 - t662;
        const Q t665 = shuffled<0, 1, 6, 7>(t663, t664);
        io.pairs(18, 19, t665);
        const Q t666 = shuffled<0, 1, 6, 7>(t664, t663);
        io.pairs(41, 42, t666);
    }
};

}  // namespace zulg
