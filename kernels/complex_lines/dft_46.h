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
        0.14231483827328514,  // c[7]: -cos 2 pi 8/11
        0.8412535328311812,  // c[8]: cos 2 pi 12/11
        0.7557495743542583,  // c[9]: -sin 2 pi 18/11
        0.28173255684142967,  // c[10]: -sin 2 pi 6/11
        0.9898214418809327,  // c[11]: -sin 2 pi 8/11
        0.9096319953545183,  // c[12]: sin 2 pi 2/11
        0.5406408174555976,  // c[13]: sin 2 pi 12/11
        0.21879791731559586,  // c[14]: P[1] of 11
        0.6262008235209833,  // c[15]: -Q[1] of 11
        0.5457579199356125,  // c[16]: P[2] of 11
        0.3770255864361907,  // c[17]: -Q[2] of 11
        0.6150936508690751,  // c[18]: -Q[3] of 11
        0.24831391555962465,  // c[19]: -P[3] of 11
        0.6626305969383026,  // c[20]: -Q[4] of 11
        0.030342906933726127,  // c[21]: -P[4] of 11
        0.17418154463549565,  // c[22]: -P[1] of 23
        0.39967916400094217,  // c[23]: Q[1] of 23
        0.4130101145562366,  // c[24]: P[2] of 23
        0.1396613400420585,  // c[25]: Q[2] of 23
        0.3222553093449257,  // c[26]: Q[3] of 23
        0.2936565344532715,  // c[27]: P[3] of 23
        0.07284077652875139,  // c[28]: -P[4] of 23
        0.42985679697172136,  // c[29]: -Q[4] of 23
        0.4166015292602189,  // c[30]: -P[5] of 23
        0.12855275355334153,  // c[31]: Q[5] of 23
        0.3397700700904962,  // c[32]: -Q[6] of 23
        0.2732012886111602,  // c[33]: -P[6] of 23
        0.3941449686576057,  // c[34]: -Q[7] of 23
        0.1863662746045921,  // c[35]: P[7] of 23
        0.4322477411542684,  // c[36]: P[8] of 23
        0.05696081894716527,  // c[37]: Q[8] of 23
        0.15475065017493012,  // c[38]: -Q[9] of 23
        0.4075964682115579,  // c[39]: -P[9] of 23
        0.4006581594304406,  // c[40]: P[10] of 23
        0.1719176660785936,  // c[41]: Q[10] of 23
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
        const Q x2_25 = io.pairs(2, 25);
        const Q x44_21 = io.pairs(44, 21);
        // real block of 2
        const Q t0 = x2_25 + x44_21;
        const Q t1 = x2_25 - x44_21;
        const Q x4_27 = io.pairs(4, 27);
        const Q x42_19 = io.pairs(42, 19);
        // real block of 2
        const Q t2 = x4_27 + x42_19;
        const Q t3 = x4_27 - x42_19;
        const Q x8_31 = io.pairs(8, 31);
        const Q x38_15 = io.pairs(38, 15);
        // real block of 2
        const Q t4 = x8_31 + x38_15;
        const Q t5 = x8_31 - x38_15;
        const Q x16_39 = io.pairs(16, 39);
        const Q x30_7 = io.pairs(30, 7);
        // real block of 2
        const Q t6 = x16_39 + x30_7;
        const Q t7 = x16_39 - x30_7;
        const Q x32_9 = io.pairs(32, 9);
        const Q x14_37 = io.pairs(14, 37);
        // real block of 2
        const Q t8 = x32_9 + x14_37;
        const Q t9 = x32_9 - x14_37;
        const Q x18_41 = io.pairs(18, 41);
        const Q x28_5 = io.pairs(28, 5);
        // real block of 2
        const Q t10 = x18_41 + x28_5;
        const Q t11 = x18_41 - x28_5;
        const Q x36_13 = io.pairs(36, 13);
        const Q x10_33 = io.pairs(10, 33);
        // real block of 2
        const Q t12 = x36_13 + x10_33;
        const Q t13 = x36_13 - x10_33;
        const Q x26_3 = io.pairs(26, 3);
        const Q x20_43 = io.pairs(20, 43);
        // real block of 2
        const Q t14 = x26_3 + x20_43;
        const Q t15 = x26_3 - x20_43;
        const Q x6_29 = io.pairs(6, 29);
        const Q x40_17 = io.pairs(40, 17);
        // real block of 2
        const Q t16 = x6_29 + x40_17;
        const Q t17 = x6_29 - x40_17;
        const Q x12_35 = io.pairs(12, 35);
        const Q x34_11 = io.pairs(34, 11);
        // real block of 2
        const Q t18 = x12_35 + x34_11;
        const Q t19 = x12_35 - x34_11;
        const Q x24_1 = io.pairs(24, 1);
        const Q x22_45 = io.pairs(22, 45);
        // real block of 2
        const Q t20 = x24_1 + x22_45;
        const Q t21 = x24_1 - x22_45;
        // real block of 11, multiplier 2
        const Q t22 = t2 + t20;
        const Q t23 = t2 - t20;
        const Q t24 = t18 + t4;
        const Q t25 = t18 - t4;
        const Q t26 = t6 + t16;
        const Q t27 = t6 - t16;
        const Q t28 = t8 + t14;
        const Q t29 = t8 - t14;
        const Q t30 = t12 + t10;
        const Q t31 = t12 - t10;
        const Q t32 = t22 + t24;
        const Q t33 = t32 + t26;
        const Q t34 = t33 + t28;
        const Q t35 = t34 + t30;
        const Q t36 = t35 + t0;
        const Q t37 = c[4] * t22;
        const Q t38 = c[5] * t24;
        const Q t39 = t37 - t38;
        const Q t40 = c[6] * t26;
        const Q t41 = t39 - t40;
        const Q t42 = c[7] * t28;
        const Q t43 = t41 - t42;
        const Q t44 = c[8] * t30;
        const Q t45 = t43 + t44;
        const Q t46 = t45 + t0;
        const Q t47 = c[9] * t25;
        const Q t48 = c[10] * t27;
        const Q t49 = t47 + t48;
        const Q t50 = c[11] * t29;
        const Q t51 = t49 + t50;
        const Q t52 = c[12] * t23;
        const Q t53 = t51 - t52;
        const Q t54 = c[13] * t31;
        const Q t55 = t53 - t54;
        const Q t56 = c[5] * t22;
        const Q t57 = t0 - t56;
        const Q t58 = c[7] * t24;
        const Q t59 = t57 - t58;
        const Q t60 = c[8] * t26;
        const Q t61 = t59 + t60;
        const Q t62 = c[6] * t28;
        const Q t63 = t61 - t62;
        const Q t64 = c[4] * t30;
        const Q t65 = t63 + t64;
        const Q t66 = c[9] * t23;
        const Q t67 = c[11] * t25;
        const Q t68 = t66 + t67;
        const Q t69 = c[13] * t27;
        const Q t70 = t68 + t69;
        const Q t71 = c[10] * t29;
        const Q t72 = t70 + t71;
        const Q t73 = c[12] * t31;
        const Q t74 = t72 + t73;
        const Q t75 = c[6] * t22;
        const Q t76 = t0 - t75;
        const Q t77 = c[8] * t24;
        const Q t78 = t76 + t77;
        const Q t79 = c[5] * t26;
        const Q t80 = t78 - t79;
        const Q t81 = c[4] * t28;
        const Q t82 = t80 + t81;
        const Q t83 = c[7] * t30;
        const Q t84 = t82 - t83;
        const Q t85 = c[10] * t23;
        const Q t86 = c[13] * t25;
        const Q t87 = t85 + t86;
        const Q t88 = c[9] * t27;
        const Q t89 = t87 + t88;
        const Q t90 = c[12] * t29;
        const Q t91 = t89 - t90;
        const Q t92 = c[11] * t31;
        const Q t93 = t91 - t92;
        const Q t94 = c[7] * t22;
        const Q t95 = t0 - t94;
        const Q t96 = c[6] * t24;
        const Q t97 = t95 - t96;
        const Q t98 = c[4] * t26;
        const Q t99 = t97 + t98;
        const Q t100 = c[8] * t28;
        const Q t101 = t99 + t100;
        const Q t102 = c[5] * t30;
        const Q t103 = t101 - t102;
        const Q t104 = c[11] * t23;
        const Q t105 = c[10] * t25;
        const Q t106 = t104 + t105;
        const Q t107 = c[13] * t29;
        const Q t108 = t106 + t107;
        const Q t109 = c[12] * t27;
        const Q t110 = t108 - t109;
        const Q t111 = c[9] * t31;
        const Q t112 = t110 - t111;
        const Q t113 = c[8] * t22;
        const Q t114 = c[4] * t24;
        const Q t115 = t113 + t114;
        const Q t116 = c[7] * t26;
        const Q t117 = t115 - t116;
        const Q t118 = c[5] * t28;
        const Q t119 = t117 - t118;
        const Q t120 = c[6] * t30;
        const Q t121 = t119 - t120;
        const Q t122 = t121 + t0;
        const Q t123 = c[13] * t23;
        const Q t124 = c[11] * t27;
        const Q t125 = t123 + t124;
        const Q t126 = c[9] * t29;
        const Q t127 = t125 + t126;
        const Q t128 = c[12] * t25;
        const Q t129 = t127 - t128;
        const Q t130 = c[10] * t31;
        const Q t131 = t129 - t130;
        // real block of 11, multiplier 2
        const Q t132 = t3 + t21;
        const Q t133 = t3 - t21;
        const Q t134 = t19 + t5;
        const Q t135 = t19 - t5;
        const Q t136 = t7 + t17;
        const Q t137 = t7 - t17;
        const Q t138 = t9 + t15;
        const Q t139 = t9 - t15;
        const Q t140 = t13 + t11;
        const Q t141 = t13 - t11;
        const Q t142 = t132 + t134;
        const Q t143 = t142 + t136;
        const Q t144 = t143 + t138;
        const Q t145 = t144 + t140;
        const Q t146 = t145 + t1;
        const Q t147 = c[4] * t132;
        const Q t148 = c[5] * t134;
        const Q t149 = t147 - t148;
        const Q t150 = c[6] * t136;
        const Q t151 = t149 - t150;
        const Q t152 = c[7] * t138;
        const Q t153 = t151 - t152;
        const Q t154 = c[8] * t140;
        const Q t155 = t153 + t154;
        const Q t156 = t155 + t1;
        const Q t157 = c[9] * t135;
        const Q t158 = c[10] * t137;
        const Q t159 = t157 + t158;
        const Q t160 = c[11] * t139;
        const Q t161 = t159 + t160;
        const Q t162 = c[12] * t133;
        const Q t163 = t161 - t162;
        const Q t164 = c[13] * t141;
        const Q t165 = t163 - t164;
        const Q t166 = c[5] * t132;
        const Q t167 = t1 - t166;
        const Q t168 = c[7] * t134;
        const Q t169 = t167 - t168;
        const Q t170 = c[8] * t136;
        const Q t171 = t169 + t170;
        const Q t172 = c[6] * t138;
        const Q t173 = t171 - t172;
        const Q t174 = c[4] * t140;
        const Q t175 = t173 + t174;
        const Q t176 = c[9] * t133;
        const Q t177 = c[11] * t135;
        const Q t178 = t176 + t177;
        const Q t179 = c[13] * t137;
        const Q t180 = t178 + t179;
        const Q t181 = c[10] * t139;
        const Q t182 = t180 + t181;
        const Q t183 = c[12] * t141;
        const Q t184 = t182 + t183;
        const Q t185 = c[6] * t132;
        const Q t186 = t1 - t185;
        const Q t187 = c[8] * t134;
        const Q t188 = t186 + t187;
        const Q t189 = c[5] * t136;
        const Q t190 = t188 - t189;
        const Q t191 = c[4] * t138;
        const Q t192 = t190 + t191;
        const Q t193 = c[7] * t140;
        const Q t194 = t192 - t193;
        const Q t195 = c[10] * t133;
        const Q t196 = c[13] * t135;
        const Q t197 = t195 + t196;
        const Q t198 = c[9] * t137;
        const Q t199 = t197 + t198;
        const Q t200 = c[12] * t139;
        const Q t201 = t199 - t200;
        const Q t202 = c[11] * t141;
        const Q t203 = t201 - t202;
        const Q t204 = c[7] * t132;
        const Q t205 = t1 - t204;
        const Q t206 = c[6] * t134;
        const Q t207 = t205 - t206;
        const Q t208 = c[4] * t136;
        const Q t209 = t207 + t208;
        const Q t210 = c[8] * t138;
        const Q t211 = t209 + t210;
        const Q t212 = c[5] * t140;
        const Q t213 = t211 - t212;
        const Q t214 = c[11] * t133;
        const Q t215 = c[10] * t135;
        const Q t216 = t214 + t215;
        const Q t217 = c[13] * t139;
        const Q t218 = t216 + t217;
        const Q t219 = c[12] * t137;
        const Q t220 = t218 - t219;
        const Q t221 = c[9] * t141;
        const Q t222 = t220 - t221;
        const Q t223 = c[8] * t132;
        const Q t224 = c[4] * t134;
        const Q t225 = t223 + t224;
        const Q t226 = c[7] * t136;
        const Q t227 = t225 - t226;
        const Q t228 = c[5] * t138;
        const Q t229 = t227 - t228;
        const Q t230 = c[6] * t140;
        const Q t231 = t229 - t230;
        const Q t232 = t231 + t1;
        const Q t233 = c[13] * t133;
        const Q t234 = c[11] * t137;
        const Q t235 = t233 + t234;
        const Q t236 = c[9] * t139;
        const Q t237 = t235 + t236;
        const Q t238 = c[12] * t135;
        const Q t239 = t237 - t238;
        const Q t240 = c[10] * t141;
        const Q t241 = t239 - t240;
        const Q x0_23 = io.pairs(0, 23);
        // complex block of 23, multiplier 2
        const Q t242 = x0_23 + t36;
        const Q t243 = c[44] * t36;
        const Q t244 = x0_23 - t243;
        const Q t245 = shuffled<1, 0, 3, 2>(t241);
        const Q t246 = Q(-c[22], c[22], -c[22], c[22]) * t245;
        const Q t247 = shuffled<1, 0, 3, 2>(t232);
        const Q t248 = Q(c[23], -c[23], c[23], -c[23]) * t247;
        const Q t249 = t246 + t248;
        const Q t250 = c[23] * t245;
        const Q t251 = c[22] * t247;
        const Q t252 = t250 + t251;
        const Q t253 = c[24] * t46;
        const Q t254 = c[25] * t55;
        const Q t255 = t253 - t254;
        const Q t256 = c[24] * t55;
        const Q t257 = c[25] * t46;
        const Q t258 = t256 + t257;
        const Q t259 = shuffled<1, 0, 3, 2>(t213);
        const Q t260 = c[26] * t259;
        const Q t261 = shuffled<1, 0, 3, 2>(t222);
        const Q t262 = c[27] * t261;
        const Q t263 = t260 + t262;
        const Q t264 = Q(-c[26], c[26], -c[26], c[26]) * t261;
        const Q t265 = Q(c[27], -c[27], c[27], -c[27]) * t259;
        const Q t266 = t264 + t265;
        const Q t267 = c[28] * t65;
        const Q t268 = c[29] * t74;
        const Q t269 = t267 + t268;
        const Q t270 = c[28] * t74;
        const Q t271 = c[29] * t65;
        const Q t272 = t270 - t271;
        const Q t273 = shuffled<1, 0, 3, 2>(t203);
        const Q t274 = Q(-c[30], c[30], -c[30], c[30]) * t273;
        const Q t275 = shuffled<1, 0, 3, 2>(t194);
        const Q t276 = Q(c[31], -c[31], c[31], -c[31]) * t275;
        const Q t277 = t274 + t276;
        const Q t278 = c[31] * t273;
        const Q t279 = c[30] * t275;
        const Q t280 = t278 + t279;
        const Q t281 = c[32] * t93;
        const Q t282 = c[33] * t84;
        const Q t283 = t281 - t282;
        const Q t284 = c[33] * t93;
        const Q t285 = c[32] * t84;
        const Q t286 = t284 + t285;
        const Q t287 = shuffled<1, 0, 3, 2>(t175);
        const Q t288 = c[34] * t287;
        const Q t289 = shuffled<1, 0, 3, 2>(t184);
        const Q t290 = c[35] * t289;
        const Q t291 = t288 + t290;
        const Q t292 = Q(-c[34], c[34], -c[34], c[34]) * t289;
        const Q t293 = Q(c[35], -c[35], c[35], -c[35]) * t287;
        const Q t294 = t292 + t293;
        const Q t295 = c[36] * t103;
        const Q t296 = c[37] * t112;
        const Q t297 = t295 - t296;
        const Q t298 = c[36] * t112;
        const Q t299 = c[37] * t103;
        const Q t300 = t298 + t299;
        const Q t301 = shuffled<1, 0, 3, 2>(t156);
        const Q t302 = c[38] * t301;
        const Q t303 = shuffled<1, 0, 3, 2>(t165);
        const Q t304 = c[39] * t303;
        const Q t305 = t302 + t304;
        const Q t306 = Q(-c[39], c[39], -c[39], c[39]) * t301;
        const Q t307 = Q(c[38], -c[38], c[38], -c[38]) * t303;
        const Q t308 = t306 + t307;
        const Q t309 = c[40] * t122;
        const Q t310 = c[41] * t131;
        const Q t311 = t309 - t310;
        const Q t312 = c[40] * t131;
        const Q t313 = c[41] * t122;
        const Q t314 = t312 + t313;
        // real block of 5
        const Q t315 = t311 - t269;
        const Q t316 = t269 + t311;
        const Q t317 = t283 + t297;
        const Q t318 = t283 - t297;
        const Q t319 = t315 + t317;
        const Q t320 = t319 + t255;
        const Q t321 = c[0] * t315;
        const Q t322 = c[1] * t317;
        const Q t323 = t321 - t322;
        const Q t324 = t323 + t255;
        const Q t325 = c[2] * t316;
        const Q t326 = c[3] * t318;
        const Q t327 = t325 + t326;
        const Q t328 = c[1] * t315;
        const Q t329 = t255 - t328;
        const Q t330 = c[0] * t317;
        const Q t331 = t329 + t330;
        const Q t332 = c[3] * t316;
        const Q t333 = c[2] * t318;
        const Q t334 = t332 - t333;
        // real block of 5
        const Q t335 = t314 - t272;
        const Q t336 = t272 + t314;
        const Q t337 = t300 - t286;
        const Q t338 = t286 + t300;
        const Q t339 = t335 + t337;
        const Q t340 = t339 + t258;
        const Q t341 = c[0] * t335;
        const Q t342 = c[1] * t337;
        const Q t343 = t341 - t342;
        const Q t344 = t343 + t258;
        const Q t345 = c[2] * t336;
        const Q t346 = c[3] * t338;
        const Q t347 = t345 - t346;
        const Q t348 = c[1] * t335;
        const Q t349 = t258 - t348;
        const Q t350 = c[0] * t337;
        const Q t351 = t349 + t350;
        const Q t352 = c[3] * t336;
        const Q t353 = c[2] * t338;
        const Q t354 = t352 + t353;
        // spectrum block of 11, multiplier 2
        const Q t355 = c[42] * t320;
        const Q t356 = t244 - t355;
        const Q t357 = c[14] * t354;
        const Q t358 = c[15] * t351;
        const Q t359 = t357 - t358;
        const Q t360 = c[15] * t354;
        const Q t361 = c[14] * t351;
        const Q t362 = t360 + t361;
        const Q t363 = c[16] * t324;
        const Q t364 = c[17] * t327;
        const Q t365 = t363 + t364;
        const Q t366 = c[16] * t327;
        const Q t367 = c[17] * t324;
        const Q t368 = t366 - t367;
        const Q t369 = c[18] * t344;
        const Q t370 = c[19] * t347;
        const Q t371 = t369 + t370;
        const Q t372 = c[18] * t347;
        const Q t373 = c[19] * t344;
        const Q t374 = t372 - t373;
        const Q t375 = c[20] * t334;
        const Q t376 = c[21] * t331;
        const Q t377 = t375 - t376;
        const Q t378 = c[21] * t334;
        const Q t379 = c[20] * t331;
        const Q t380 = t378 + t379;
        const Q t381 = c[43] * t340;
        // spectrum block of 2
        const Q t382 = t356 + t381;
        const Q t383 = t356 - t381;
        // complex block of 2
        const Q t384 = t368 - t374;
        const Q t385 = t365 - t371;
        const Q t386 = t368 + t374;
        const Q t387 = t365 + t371;
        // complex block of 2
        const Q t388 = t380 + t362;
        const Q t389 = t377 + t359;
        const Q t390 = t362 - t380;
        const Q t391 = t377 - t359;
        // spectrum block of 5, multiplier 2
        const Q t392 = t385 + t389;
        const Q t393 = t392 + t382;
        const Q t394 = c[0] * t385;
        const Q t395 = c[1] * t389;
        const Q t396 = t394 - t395;
        const Q t397 = t396 + t382;
        const Q t398 = c[2] * t384;
        const Q t399 = c[3] * t388;
        const Q t400 = t398 - t399;
        const Q t401 = t397 - t400;
        const Q t402 = t397 + t400;
        const Q t403 = c[1] * t385;
        const Q t404 = t382 - t403;
        const Q t405 = c[0] * t389;
        const Q t406 = t404 + t405;
        const Q t407 = c[3] * t384;
        const Q t408 = c[2] * t388;
        const Q t409 = t407 + t408;
        const Q t410 = t406 - t409;
        const Q t411 = t406 + t409;
        // spectrum block of 5, multiplier 2
        const Q t412 = t387 + t391;
        const Q t413 = t412 + t383;
        const Q t414 = c[0] * t387;
        const Q t415 = c[1] * t391;
        const Q t416 = t414 - t415;
        const Q t417 = t416 + t383;
        const Q t418 = c[2] * t386;
        const Q t419 = c[3] * t390;
        const Q t420 = t418 + t419;
        const Q t421 = t417 - t420;
        const Q t422 = t417 + t420;
        const Q t423 = c[1] * t387;
        const Q t424 = t383 - t423;
        const Q t425 = c[0] * t391;
        const Q t426 = t424 + t425;
        const Q t427 = c[3] * t386;
        const Q t428 = c[2] * t390;
        const Q t429 = t427 - t428;
        const Q t430 = t426 - t429;
        const Q t431 = t426 + t429;
        // spectrum block of 11, multiplier 2
        const Q t432 = t244 + t320;
        const Q t433 = flipped<1, 0, 1, 0>(t291);
        // real block of 5
        const Q t434 = t433 + t249;
        const Q t435 = flipped<0, 1, 0, 1>(t249);
        const Q t436 = t291 + t435;
        const Q t437 = flipped<0, 1, 0, 1>(t263);
        const Q t438 = t277 + t437;
        const Q t439 = t277 - t437;
        const Q t440 = t434 + t438;
        const Q t441 = flipped<1, 0, 1, 0>(t305);
        const Q t442 = t440 + t441;
        const Q t443 = c[0] * t434;
        const Q t444 = c[1] * t438;
        const Q t445 = t443 - t444;
        const Q t446 = t445 + t441;
        const Q t447 = c[3] * t439;
        const Q t448 = Q(c[2], -c[2], c[2], -c[2]) * t436;
        const Q t449 = t447 + t448;
        const Q t450 = Q(c[1], -c[1], c[1], -c[1]) * t434;
        const Q t451 = t305 + t450;
        const Q t452 = flipped<1, 0, 1, 0>(t451);
        const Q t453 = c[0] * t438;
        const Q t454 = t452 + t453;
        const Q t455 = c[3] * t436;
        const Q t456 = Q(-c[2], c[2], -c[2], c[2]) * t439;
        const Q t457 = t455 + t456;
        const Q t458 = flipped<0, 1, 0, 1>(t252);
        // real block of 5
        const Q t459 = t294 + t458;
        const Q t460 = t294 - t458;
        const Q t461 = flipped<1, 0, 1, 0>(t266);
        const Q t462 = t280 + t461;
        const Q t463 = flipped<0, 1, 0, 1>(t280);
        const Q t464 = t266 + t463;
        const Q t465 = flipped<0, 1, 0, 1>(t462);
        const Q t466 = t459 + t465;
        const Q t467 = t466 - t308;
        const Q t468 = c[0] * t459;
        const Q t469 = Q(-c[1], c[1], -c[1], c[1]) * t462;
        const Q t470 = t468 + t469;
        const Q t471 = t470 - t308;
        const Q t472 = c[3] * t464;
        const Q t473 = c[2] * t460;
        const Q t474 = t472 - t473;
        const Q t475 = c[1] * t459;
        const Q t476 = t308 + t475;
        const Q t477 = flipped<1, 0, 1, 0>(t476);
        const Q t478 = c[0] * t462;
        const Q t479 = t477 + t478;
        const Q t480 = c[3] * t460;
        const Q t481 = c[2] * t464;
        const Q t482 = t480 + t481;
        const Q t483 = shuffled<1, 0, 3, 2>(t146);
        // complex block of 23, multiplier 2
        const Q t484 = c[45] * t483;
        // spectrum block of 11, multiplier 2
        const Q t485 = Q(-c[42], c[42], -c[42], c[42]) * t442;
        const Q t486 = t484 + t485;
        const Q t487 = c[15] * t479;
        const Q t488 = Q(c[14], -c[14], c[14], -c[14]) * t482;
        const Q t489 = t487 + t488;
        const Q t490 = Q(-c[15], c[15], -c[15], c[15]) * t482;
        const Q t491 = c[14] * t479;
        const Q t492 = t490 + t491;
        const Q t493 = c[16] * t446;
        const Q t494 = c[17] * t449;
        const Q t495 = t493 + t494;
        const Q t496 = c[16] * t449;
        const Q t497 = c[17] * t446;
        const Q t498 = t496 - t497;
        const Q t499 = c[18] * t471;
        const Q t500 = c[19] * t474;
        const Q t501 = t499 + t500;
        const Q t502 = c[18] * t474;
        const Q t503 = c[19] * t471;
        const Q t504 = t502 - t503;
        const Q t505 = Q(-c[21], c[21], -c[21], c[21]) * t454;
        const Q t506 = c[20] * t457;
        const Q t507 = t505 + t506;
        const Q t508 = c[21] * t457;
        const Q t509 = Q(c[20], -c[20], c[20], -c[20]) * t454;
        const Q t510 = t508 + t509;
        const Q t511 = c[43] * t467;
        const Q t512 = flipped<0, 1, 0, 1>(t486);
        // spectrum block of 2
        const Q t513 = t511 + t512;
        const Q t514 = flipped<1, 0, 1, 0>(t511);
        const Q t515 = t486 + t514;
        // complex block of 2
        const Q t516 = t498 - t504;
        const Q t517 = t495 - t501;
        const Q t518 = t498 + t504;
        const Q t519 = t495 + t501;
        // complex block of 2
        const Q t520 = t510 + t492;
        const Q t521 = shuffled<0, 5, 2, 7>(t507, t489);
        const Q t522 = shuffled<0, 5, 2, 7>(t489, t507);
        const Q t523 = t521 - t522;
        const Q t524 = shuffled<0, 5, 2, 7>(t492, t510);
        const Q t525 = shuffled<0, 5, 2, 7>(t510, t492);
        const Q t526 = t524 - t525;
        const Q t527 = t507 + t489;
        // spectrum block of 5, multiplier 2
        const Q t528 = t517 + t523;
        const Q t529 = t528 + t513;
        const Q t530 = c[0] * t517;
        const Q t531 = c[1] * t523;
        const Q t532 = t530 - t531;
        const Q t533 = t532 + t513;
        const Q t534 = c[2] * t516;
        const Q t535 = Q(-c[3], c[3], -c[3], c[3]) * t520;
        const Q t536 = t534 + t535;
        const Q t537 = t533 - t536;
        const Q t538 = t533 + t536;
        const Q t539 = c[1] * t517;
        const Q t540 = t513 - t539;
        const Q t541 = c[0] * t523;
        const Q t542 = t540 + t541;
        const Q t543 = c[3] * t516;
        const Q t544 = Q(c[2], -c[2], c[2], -c[2]) * t520;
        const Q t545 = t543 + t544;
        const Q t546 = t542 - t545;
        const Q t547 = t542 + t545;
        const Q t548 = flipped<0, 1, 0, 1>(t527);
        // spectrum block of 5, multiplier 2
        const Q t549 = t519 + t548;
        const Q t550 = flipped<0, 1, 0, 1>(t515);
        const Q t551 = t549 + t550;
        const Q t552 = c[0] * t519;
        const Q t553 = Q(-c[1], c[1], -c[1], c[1]) * t527;
        const Q t554 = t552 + t553;
        const Q t555 = t554 + t550;
        const Q t556 = c[2] * t518;
        const Q t557 = c[3] * t526;
        const Q t558 = t556 + t557;
        const Q t559 = t555 - t558;
        const Q t560 = t555 + t558;
        const Q t561 = Q(-c[1], c[1], -c[1], c[1]) * t519;
        const Q t562 = t515 + t561;
        const Q t563 = c[0] * t527;
        const Q t564 = t562 + t563;
        const Q t565 = c[3] * t518;
        const Q t566 = c[2] * t526;
        const Q t567 = t565 - t566;
        const Q t568 = flipped<1, 0, 1, 0>(t567);
        const Q t569 = t564 + t568;
        const Q t570 = flipped<0, 1, 0, 1>(t564);
        const Q t571 = t567 + t570;
        const Q t572 = flipped<0, 1, 0, 1>(t484);
        // spectrum block of 11, multiplier 2
        const Q t573 = t442 + t572;
        // spectrum block of 2
        const Q t574 = t432 + t573;
        const Q t575 = t432 - t573;
        // spectrum block of 2
        const Q t576 = t393 + t529;
        const Q t577 = t393 - t529;
        // spectrum block of 2
        const Q t578 = t422 + t560;
        const Q t579 = t422 - t560;
        // spectrum block of 2
        const Q t580 = t410 + t546;
        const Q t581 = t410 - t546;
        // spectrum block of 2
        const Q t582 = t411 + t547;
        const Q t583 = t411 - t547;
        // spectrum block of 2
        const Q t584 = t401 + t537;
        const Q t585 = t401 - t537;
        // spectrum block of 2
        const Q t586 = t421 + t559;
        const Q t587 = t421 - t559;
        // spectrum block of 2
        const Q t588 = t431 + t571;
        const Q t589 = t431 - t571;
        const Q t590 = flipped<0, 1, 0, 1>(t569);
        // spectrum block of 2
        const Q t591 = t430 + t590;
        const Q t592 = t430 - t590;
        // spectrum block of 2
        const Q t593 = t402 + t538;
        const Q t594 = t402 - t538;
        // spectrum block of 2
        const Q t595 = t413 + t551;
        const Q t596 = t413 - t551;
        const P t597 = part<0>(t577);
        const P t598 = part<1>(t577);
        // complex block of 2
        const P t599 = t597 + t598;
        io.pair(22, t599);
        const P t600 = t597 - t598;
        io.pair(45, t600);
        const Q t601 = shuffled<0, 1, 4, 5>(t242, t576);
        const Q t602 = shuffled<2, 3, 6, 7>(t242, t576);
        // complex block of 2
        const Q t603 = t601 + t602;
        const Q t604 = t601 - t602;
        const Q t605 = shuffled<0, 1, 6, 7>(t603, t604);
        io.pairs(0, 1, t605);
        const Q t606 = shuffled<0, 1, 6, 7>(t604, t603);
        io.pairs(23, 24, t606);
        const Q t607 = shuffled<0, 1, 4, 5>(t574, t582);
        const Q t608 = shuffled<2, 3, 6, 7>(t574, t582);
        // complex block of 2
        const Q t609 = t607 + t608;
        const Q t610 = t607 - t608;
        const Q t611 = shuffled<0, 1, 6, 7>(t609, t610);
        io.pairs(2, 3, t611);
        const Q t612 = shuffled<0, 1, 6, 7>(t610, t609);
        io.pairs(25, 26, t612);
        const Q t613 = shuffled<0, 1, 4, 5>(t595, t587);
        const Q t614 = shuffled<2, 3, 6, 7>(t595, t587);
        // complex block of 2
        const Q t615 = t613 + t614;
        const Q t616 = t613 - t614;
        const Q t617 = shuffled<0, 1, 6, 7>(t615, t616);
        io.pairs(4, 5, t617);
        const Q t618 = shuffled<0, 1, 6, 7>(t616, t615);
        io.pairs(27, 28, t618);
        const Q t619 = shuffled<0, 1, 4, 5>(t580, t592);
        const Q t620 = shuffled<2, 3, 6, 7>(t580, t592);
        // complex block of 2
        const Q t621 = t619 + t620;
        const Q t622 = t619 - t620;
        const Q t623 = shuffled<0, 1, 6, 7>(t621, t622);
        io.pairs(6, 7, t623);
        const Q t624 = shuffled<0, 1, 6, 7>(t622, t621);
        io.pairs(29, 30, t624);
        const Q t625 = shuffled<0, 1, 4, 5>(t593, t588);
        const Q t626 = shuffled<2, 3, 6, 7>(t593, t588);
        // complex block of 2
        const Q t627 = t625 + t626;
        const Q t628 = t625 - t626;
        const Q t629 = shuffled<0, 1, 6, 7>(t627, t628);
        io.pairs(8, 9, t629);
        const Q t630 = shuffled<0, 1, 6, 7>(t628, t627);
        io.pairs(31, 32, t630);
        const Q t631 = shuffled<0, 1, 4, 5>(t585, t579);
        const Q t632 = shuffled<2, 3, 6, 7>(t585, t579);
        // complex block of 2
        const Q t633 = t631 + t632;
        const Q t634 = t631 - t632;
        const Q t635 = shuffled<0, 1, 6, 7>(t633, t634);
        io.pairs(10, 11, t635);
        const Q t636 = shuffled<0, 1, 6, 7>(t634, t633);
        io.pairs(33, 34, t636);
        const Q t637 = shuffled<0, 1, 4, 5>(t578, t584);
        const Q t638 = shuffled<2, 3, 6, 7>(t578, t584);
        // complex block of 2
        const Q t639 = t637 + t638;
        const Q t640 = t637 - t638;
        const Q t641 = shuffled<0, 1, 6, 7>(t639, t640);
        io.pairs(12, 13, t641);
        const Q t642 = shuffled<0, 1, 6, 7>(t640, t639);
        io.pairs(35, 36, t642);
        const Q t643 = shuffled<0, 1, 4, 5>(t589, t594);
        const Q t644 = shuffled<2, 3, 6, 7>(t589, t594);
        // complex block of 2
        const Q t645 = t643 + t644;
        const Q t646 = t643 - t644;
        const Q t647 = shuffled<0, 1, 6, 7>(t645, t646);
        io.pairs(14, 15, t647);
        const Q t648 = shuffled<0, 1, 6, 7>(t646, t645);
        io.pairs(37, 38, t648);
        const Q t649 = shuffled<0, 1, 4, 5>(t591, t581);
        const Q t650 = shuffled<2, 3, 6, 7>(t591, t581);
        // complex block of 2
        const Q t651 = t649 + t650;
        const Q t652 = t649 - t650;
        const Q t653 = shuffled<0, 1, 6, 7>(t651, t652);
        io.pairs(16, 17, t653);
        const Q t654 = shuffled<0, 1, 6, 7>(t652, t651);
        io.pairs(39, 40, t654);
        const Q t655 = shuffled<0, 1, 4, 5>(t586, t596);
        const Q t656 = shuffled<2, 3, 6, 7>(t586, t596);
        // complex block of 2
        const Q t657 = t655 + t656;
        const Q t658 = t655 - t656;
        const Q t659 = shuffled<0, 1, 6, 7>(t657, t658);
        io.pairs(18, 19, t659);
        const Q t660 = shuffled<0, 1, 6, 7>(t658, t657);
        io.pairs(41, 42, t660);
        const Q t661 = shuffled<0, 1, 4, 5>(t583, t575);
        const Q t662 = shuffled<2, 3, 6, 7>(t583, t575);
        // complex block of 2
        const Q t663 = t661 + t662;
        const Q t664 = t661 - t662;
        const Q t665 = shuffled<0, 1, 6, 7>(t663, t664);
        io.pairs(20, 21, t665);
        const Q t666 = shuffled<0, 1, 6, 7>(t664, t663);
        io.pairs(43, 44, t666);
    }
};

}  // namespace zulg
