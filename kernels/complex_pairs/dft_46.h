// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 46.
// Complex DFT of 46 points, prime-factor, order 23, 2; one complex number to a register.
// 403 sums, 287 differences, 484 products of registers, which do the 2440 steps of the graph, those with
// `scale` included; 30 shuffles, 36 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<46> {
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
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x2 = io.pair(2);
        const P x44 = io.pair(44);
        // real block of 2
        const P t0 = x2 + x44;
        const P t1 = x2 - x44;
        const P x4 = io.pair(4);
        const P x42 = io.pair(42);
        // real block of 2
        const P t2 = x4 + x42;
        const P t3 = x4 - x42;
        const P x8 = io.pair(8);
        const P x38 = io.pair(38);
        // real block of 2
        const P t4 = x8 + x38;
        const P t5 = x8 - x38;
        const P x16 = io.pair(16);
        const P x30 = io.pair(30);
        // real block of 2
        const P t6 = x16 + x30;
        const P t7 = x16 - x30;
        const P x32 = io.pair(32);
        const P x14 = io.pair(14);
        // real block of 2
        const P t8 = x32 + x14;
        const P t9 = x32 - x14;
        const P x18 = io.pair(18);
        const P x28 = io.pair(28);
        // real block of 2
        const P t10 = x18 + x28;
        const P t11 = x18 - x28;
        const P x36 = io.pair(36);
        const P x10 = io.pair(10);
        // real block of 2
        const P t12 = x36 + x10;
        const P t13 = x36 - x10;
        const P x26 = io.pair(26);
        const P x20 = io.pair(20);
        // real block of 2
        const P t14 = x26 + x20;
        const P t15 = x26 - x20;
        const P x6 = io.pair(6);
        const P x40 = io.pair(40);
        // real block of 2
        const P t16 = x6 + x40;
        const P t17 = x6 - x40;
        const P x12 = io.pair(12);
        const P x34 = io.pair(34);
        // real block of 2
        const P t18 = x12 + x34;
        const P t19 = x12 - x34;
        const P x24 = io.pair(24);
        const P x22 = io.pair(22);
        // real block of 2
        const P t20 = x24 + x22;
        const P t21 = x24 - x22;
        // real block of 11, multiplier 2
        const P t22 = t2 + t20;
        const P t23 = t2 - t20;
        const P t24 = t18 + t4;
        const P t25 = t18 - t4;
        const P t26 = t6 + t16;
        const P t27 = t6 - t16;
        const P t28 = t8 + t14;
        const P t29 = t8 - t14;
        const P t30 = t12 + t10;
        const P t31 = t12 - t10;
        const P t32 = t22 + t24;
        const P t33 = t32 + t26;
        const P t34 = t33 + t28;
        const P t35 = t34 + t30;
        const P t36 = t35 + t0;
        const P t37 = c[4] * t22;
        const P t38 = c[5] * t24;
        const P t39 = t37 - t38;
        const P t40 = c[6] * t26;
        const P t41 = t39 - t40;
        const P t42 = c[7] * t28;
        const P t43 = t41 - t42;
        const P t44 = c[8] * t30;
        const P t45 = t43 + t44;
        const P t46 = t45 + t0;
        const P t47 = c[9] * t25;
        const P t48 = c[10] * t27;
        const P t49 = t47 + t48;
        const P t50 = c[11] * t29;
        const P t51 = t49 + t50;
        const P t52 = c[12] * t23;
        const P t53 = t51 - t52;
        const P t54 = c[13] * t31;
        const P t55 = t53 - t54;
        const P t56 = c[5] * t22;
        const P t57 = t0 - t56;
        const P t58 = c[7] * t24;
        const P t59 = t57 - t58;
        const P t60 = c[8] * t26;
        const P t61 = t59 + t60;
        const P t62 = c[6] * t28;
        const P t63 = t61 - t62;
        const P t64 = c[4] * t30;
        const P t65 = t63 + t64;
        const P t66 = c[9] * t23;
        const P t67 = c[11] * t25;
        const P t68 = t66 + t67;
        const P t69 = c[13] * t27;
        const P t70 = t68 + t69;
        const P t71 = c[10] * t29;
        const P t72 = t70 + t71;
        const P t73 = c[12] * t31;
        const P t74 = t72 + t73;
        const P t75 = c[6] * t22;
        const P t76 = t0 - t75;
        const P t77 = c[8] * t24;
        const P t78 = t76 + t77;
        const P t79 = c[5] * t26;
        const P t80 = t78 - t79;
        const P t81 = c[4] * t28;
        const P t82 = t80 + t81;
        const P t83 = c[7] * t30;
        const P t84 = t82 - t83;
        const P t85 = c[10] * t23;
        const P t86 = c[13] * t25;
        const P t87 = t85 + t86;
        const P t88 = c[9] * t27;
        const P t89 = t87 + t88;
        const P t90 = c[12] * t29;
        const P t91 = t89 - t90;
        const P t92 = c[11] * t31;
        const P t93 = t91 - t92;
        const P t94 = c[7] * t22;
        const P t95 = t0 - t94;
        const P t96 = c[6] * t24;
        const P t97 = t95 - t96;
        const P t98 = c[4] * t26;
        const P t99 = t97 + t98;
        const P t100 = c[8] * t28;
        const P t101 = t99 + t100;
        const P t102 = c[5] * t30;
        const P t103 = t101 - t102;
        const P t104 = c[11] * t23;
        const P t105 = c[10] * t25;
        const P t106 = t104 + t105;
        const P t107 = c[13] * t29;
        const P t108 = t106 + t107;
        const P t109 = c[12] * t27;
        const P t110 = t108 - t109;
        const P t111 = c[9] * t31;
        const P t112 = t110 - t111;
        const P t113 = c[8] * t22;
        const P t114 = c[4] * t24;
        const P t115 = t113 + t114;
        const P t116 = c[7] * t26;
        const P t117 = t115 - t116;
        const P t118 = c[5] * t28;
        const P t119 = t117 - t118;
        const P t120 = c[6] * t30;
        const P t121 = t119 - t120;
        const P t122 = t121 + t0;
        const P t123 = c[13] * t23;
        const P t124 = c[11] * t27;
        const P t125 = t123 + t124;
        const P t126 = c[9] * t29;
        const P t127 = t125 + t126;
        const P t128 = c[12] * t25;
        const P t129 = t127 - t128;
        const P t130 = c[10] * t31;
        const P t131 = t129 - t130;
        // real block of 11, multiplier 2
        const P t132 = t3 + t21;
        const P t133 = t3 - t21;
        const P t134 = t19 + t5;
        const P t135 = t19 - t5;
        const P t136 = t7 + t17;
        const P t137 = t7 - t17;
        const P t138 = t9 + t15;
        const P t139 = t9 - t15;
        const P t140 = t13 + t11;
        const P t141 = t13 - t11;
        const P t142 = t132 + t134;
        const P t143 = t142 + t136;
        const P t144 = t143 + t138;
        const P t145 = t144 + t140;
        const P t146 = t145 + t1;
        const P t147 = c[4] * t132;
        const P t148 = c[5] * t134;
        const P t149 = t147 - t148;
        const P t150 = c[6] * t136;
        const P t151 = t149 - t150;
        const P t152 = c[7] * t138;
        const P t153 = t151 - t152;
        const P t154 = c[8] * t140;
        const P t155 = t153 + t154;
        const P t156 = t155 + t1;
        const P t157 = c[9] * t135;
        const P t158 = c[10] * t137;
        const P t159 = t157 + t158;
        const P t160 = c[11] * t139;
        const P t161 = t159 + t160;
        const P t162 = c[12] * t133;
        const P t163 = t161 - t162;
        const P t164 = c[13] * t141;
        const P t165 = t163 - t164;
        const P t166 = c[5] * t132;
        const P t167 = t1 - t166;
        const P t168 = c[7] * t134;
        const P t169 = t167 - t168;
        const P t170 = c[8] * t136;
        const P t171 = t169 + t170;
        const P t172 = c[6] * t138;
        const P t173 = t171 - t172;
        const P t174 = c[4] * t140;
        const P t175 = t173 + t174;
        const P t176 = c[9] * t133;
        const P t177 = c[11] * t135;
        const P t178 = t176 + t177;
        const P t179 = c[13] * t137;
        const P t180 = t178 + t179;
        const P t181 = c[10] * t139;
        const P t182 = t180 + t181;
        const P t183 = c[12] * t141;
        const P t184 = t182 + t183;
        const P t185 = c[6] * t132;
        const P t186 = t1 - t185;
        const P t187 = c[8] * t134;
        const P t188 = t186 + t187;
        const P t189 = c[5] * t136;
        const P t190 = t188 - t189;
        const P t191 = c[4] * t138;
        const P t192 = t190 + t191;
        const P t193 = c[7] * t140;
        const P t194 = t192 - t193;
        const P t195 = c[10] * t133;
        const P t196 = c[13] * t135;
        const P t197 = t195 + t196;
        const P t198 = c[9] * t137;
        const P t199 = t197 + t198;
        const P t200 = c[12] * t139;
        const P t201 = t199 - t200;
        const P t202 = c[11] * t141;
        const P t203 = t201 - t202;
        const P t204 = c[7] * t132;
        const P t205 = t1 - t204;
        const P t206 = c[6] * t134;
        const P t207 = t205 - t206;
        const P t208 = c[4] * t136;
        const P t209 = t207 + t208;
        const P t210 = c[8] * t138;
        const P t211 = t209 + t210;
        const P t212 = c[5] * t140;
        const P t213 = t211 - t212;
        const P t214 = c[11] * t133;
        const P t215 = c[10] * t135;
        const P t216 = t214 + t215;
        const P t217 = c[13] * t139;
        const P t218 = t216 + t217;
        const P t219 = c[12] * t137;
        const P t220 = t218 - t219;
        const P t221 = c[9] * t141;
        const P t222 = t220 - t221;
        const P t223 = c[8] * t132;
        const P t224 = c[4] * t134;
        const P t225 = t223 + t224;
        const P t226 = c[7] * t136;
        const P t227 = t225 - t226;
        const P t228 = c[5] * t138;
        const P t229 = t227 - t228;
        const P t230 = c[6] * t140;
        const P t231 = t229 - t230;
        const P t232 = t231 + t1;
        const P t233 = c[13] * t133;
        const P t234 = c[11] * t137;
        const P t235 = t233 + t234;
        const P t236 = c[9] * t139;
        const P t237 = t235 + t236;
        const P t238 = c[12] * t135;
        const P t239 = t237 - t238;
        const P t240 = c[10] * t141;
        const P t241 = t239 - t240;
        const P x0 = io.pair(0);
        // complex block of 23, multiplier 2
        const P t242 = x0 + t36;
        const P t243 = c[44] * t36;
        const P t244 = x0 - t243;
        const P t245 = shuffled<1, 0>(t241);
        const P t246 = P(-c[22], c[22]) * t245;
        const P t247 = shuffled<1, 0>(t232);
        const P t248 = P(c[23], -c[23]) * t247;
        const P t249 = t246 + t248;
        const P t250 = c[23] * t245;
        const P t251 = c[22] * t247;
        const P t252 = t250 + t251;
        const P t253 = c[24] * t46;
        const P t254 = c[25] * t55;
        const P t255 = t253 - t254;
        const P t256 = c[24] * t55;
        const P t257 = c[25] * t46;
        const P t258 = t256 + t257;
        const P t259 = shuffled<1, 0>(t213);
        const P t260 = c[26] * t259;
        const P t261 = shuffled<1, 0>(t222);
        const P t262 = c[27] * t261;
        const P t263 = t260 + t262;
        const P t264 = P(-c[26], c[26]) * t261;
        const P t265 = P(c[27], -c[27]) * t259;
        const P t266 = t264 + t265;
        const P t267 = c[28] * t65;
        const P t268 = c[29] * t74;
        const P t269 = t267 + t268;
        const P t270 = c[28] * t74;
        const P t271 = c[29] * t65;
        const P t272 = t270 - t271;
        const P t273 = shuffled<1, 0>(t203);
        const P t274 = P(-c[30], c[30]) * t273;
        const P t275 = shuffled<1, 0>(t194);
        const P t276 = P(c[31], -c[31]) * t275;
        const P t277 = t274 + t276;
        const P t278 = c[31] * t273;
        const P t279 = c[30] * t275;
        const P t280 = t278 + t279;
        const P t281 = c[32] * t93;
        const P t282 = c[33] * t84;
        const P t283 = t281 - t282;
        const P t284 = c[33] * t93;
        const P t285 = c[32] * t84;
        const P t286 = t284 + t285;
        const P t287 = shuffled<1, 0>(t175);
        const P t288 = c[34] * t287;
        const P t289 = shuffled<1, 0>(t184);
        const P t290 = c[35] * t289;
        const P t291 = t288 + t290;
        const P t292 = P(-c[34], c[34]) * t289;
        const P t293 = P(c[35], -c[35]) * t287;
        const P t294 = t292 + t293;
        const P t295 = c[36] * t103;
        const P t296 = c[37] * t112;
        const P t297 = t295 - t296;
        const P t298 = c[36] * t112;
        const P t299 = c[37] * t103;
        const P t300 = t298 + t299;
        const P t301 = shuffled<1, 0>(t156);
        const P t302 = c[38] * t301;
        const P t303 = shuffled<1, 0>(t165);
        const P t304 = c[39] * t303;
        const P t305 = t302 + t304;
        const P t306 = P(-c[39], c[39]) * t301;
        const P t307 = P(c[38], -c[38]) * t303;
        const P t308 = t306 + t307;
        const P t309 = c[40] * t122;
        const P t310 = c[41] * t131;
        const P t311 = t309 - t310;
        const P t312 = c[40] * t131;
        const P t313 = c[41] * t122;
        const P t314 = t312 + t313;
        // real block of 5
        const P t315 = t311 - t269;
        const P t316 = t269 + t311;
        const P t317 = t283 + t297;
        const P t318 = t283 - t297;
        const P t319 = t315 + t317;
        const P t320 = t319 + t255;
        const P t321 = c[0] * t315;
        const P t322 = c[1] * t317;
        const P t323 = t321 - t322;
        const P t324 = t323 + t255;
        const P t325 = c[2] * t316;
        const P t326 = c[3] * t318;
        const P t327 = t325 + t326;
        const P t328 = c[1] * t315;
        const P t329 = t255 - t328;
        const P t330 = c[0] * t317;
        const P t331 = t329 + t330;
        const P t332 = c[3] * t316;
        const P t333 = c[2] * t318;
        const P t334 = t332 - t333;
        // real block of 5
        const P t335 = t314 - t272;
        const P t336 = t272 + t314;
        const P t337 = t300 - t286;
        const P t338 = t286 + t300;
        const P t339 = t335 + t337;
        const P t340 = t339 + t258;
        const P t341 = c[0] * t335;
        const P t342 = c[1] * t337;
        const P t343 = t341 - t342;
        const P t344 = t343 + t258;
        const P t345 = c[2] * t336;
        const P t346 = c[3] * t338;
        const P t347 = t345 - t346;
        const P t348 = c[1] * t335;
        const P t349 = t258 - t348;
        const P t350 = c[0] * t337;
        const P t351 = t349 + t350;
        const P t352 = c[3] * t336;
        const P t353 = c[2] * t338;
        const P t354 = t352 + t353;
        // spectrum block of 11, multiplier 2
        const P t355 = c[42] * t320;
        const P t356 = t244 - t355;
        const P t357 = c[14] * t354;
        const P t358 = c[15] * t351;
        const P t359 = t357 - t358;
        const P t360 = c[15] * t354;
        const P t361 = c[14] * t351;
        const P t362 = t360 + t361;
        const P t363 = c[16] * t324;
        const P t364 = c[17] * t327;
        const P t365 = t363 + t364;
        const P t366 = c[16] * t327;
        const P t367 = c[17] * t324;
        const P t368 = t366 - t367;
        const P t369 = c[18] * t344;
        const P t370 = c[19] * t347;
        const P t371 = t369 + t370;
        const P t372 = c[18] * t347;
        const P t373 = c[19] * t344;
        const P t374 = t372 - t373;
        const P t375 = c[20] * t334;
        const P t376 = c[21] * t331;
        const P t377 = t375 - t376;
        const P t378 = c[21] * t334;
        const P t379 = c[20] * t331;
        const P t380 = t378 + t379;
        const P t381 = c[43] * t340;
        // spectrum block of 2
        const P t382 = t356 + t381;
        const P t383 = t356 - t381;
        // complex block of 2
        const P t384 = t368 - t374;
        const P t385 = t365 - t371;
        const P t386 = t368 + t374;
        const P t387 = t365 + t371;
        // complex block of 2
        const P t388 = t380 + t362;
        const P t389 = t377 + t359;
        const P t390 = t362 - t380;
        const P t391 = t377 - t359;
        // spectrum block of 5, multiplier 2
        const P t392 = t385 + t389;
        const P t393 = t392 + t382;
        const P t394 = c[0] * t385;
        const P t395 = c[1] * t389;
        const P t396 = t394 - t395;
        const P t397 = t396 + t382;
        const P t398 = c[2] * t384;
        const P t399 = c[3] * t388;
        const P t400 = t398 - t399;
        const P t401 = t397 - t400;
        const P t402 = t397 + t400;
        const P t403 = c[1] * t385;
        const P t404 = t382 - t403;
        const P t405 = c[0] * t389;
        const P t406 = t404 + t405;
        const P t407 = c[3] * t384;
        const P t408 = c[2] * t388;
        const P t409 = t407 + t408;
        const P t410 = t406 - t409;
        const P t411 = t406 + t409;
        // spectrum block of 5, multiplier 2
        const P t412 = t387 + t391;
        const P t413 = t412 + t383;
        const P t414 = c[0] * t387;
        const P t415 = c[1] * t391;
        const P t416 = t414 - t415;
        const P t417 = t416 + t383;
        const P t418 = c[2] * t386;
        const P t419 = c[3] * t390;
        const P t420 = t418 + t419;
        const P t421 = t417 - t420;
        const P t422 = t417 + t420;
        const P t423 = c[1] * t387;
        const P t424 = t383 - t423;
        const P t425 = c[0] * t391;
        const P t426 = t424 + t425;
        const P t427 = c[3] * t386;
        const P t428 = c[2] * t390;
        const P t429 = t427 - t428;
        const P t430 = t426 - t429;
        const P t431 = t426 + t429;
        // spectrum block of 11, multiplier 2
        const P t432 = t244 + t320;
        const P t433 = flipped<1, 0>(t291);
        // real block of 5
        const P t434 = t433 + t249;
        const P t435 = flipped<0, 1>(t249);
        const P t436 = t291 + t435;
        const P t437 = flipped<0, 1>(t263);
        const P t438 = t277 + t437;
        const P t439 = t277 - t437;
        const P t440 = t434 + t438;
        const P t441 = flipped<1, 0>(t305);
        const P t442 = t440 + t441;
        const P t443 = c[0] * t434;
        const P t444 = c[1] * t438;
        const P t445 = t443 - t444;
        const P t446 = t445 + t441;
        const P t447 = c[3] * t439;
        const P t448 = P(c[2], -c[2]) * t436;
        const P t449 = t447 + t448;
        const P t450 = P(c[1], -c[1]) * t434;
        const P t451 = t305 + t450;
        const P t452 = flipped<1, 0>(t451);
        const P t453 = c[0] * t438;
        const P t454 = t452 + t453;
        const P t455 = c[3] * t436;
        const P t456 = P(-c[2], c[2]) * t439;
        const P t457 = t455 + t456;
        const P t458 = flipped<0, 1>(t252);
        // real block of 5
        const P t459 = t294 + t458;
        const P t460 = t294 - t458;
        const P t461 = flipped<1, 0>(t266);
        const P t462 = t280 + t461;
        const P t463 = flipped<0, 1>(t280);
        const P t464 = t266 + t463;
        const P t465 = flipped<0, 1>(t462);
        const P t466 = t459 + t465;
        const P t467 = t466 - t308;
        const P t468 = c[0] * t459;
        const P t469 = P(-c[1], c[1]) * t462;
        const P t470 = t468 + t469;
        const P t471 = t470 - t308;
        const P t472 = c[3] * t464;
        const P t473 = c[2] * t460;
        const P t474 = t472 - t473;
        const P t475 = c[1] * t459;
        const P t476 = t308 + t475;
        const P t477 = flipped<1, 0>(t476);
        const P t478 = c[0] * t462;
        const P t479 = t477 + t478;
        const P t480 = c[3] * t460;
        const P t481 = c[2] * t464;
        const P t482 = t480 + t481;
        const P t483 = shuffled<1, 0>(t146);
        // complex block of 23, multiplier 2
        const P t484 = c[45] * t483;
        // spectrum block of 11, multiplier 2
        const P t485 = P(-c[42], c[42]) * t442;
        const P t486 = t484 + t485;
        const P t487 = c[15] * t479;
        const P t488 = P(c[14], -c[14]) * t482;
        const P t489 = t487 + t488;
        const P t490 = P(-c[15], c[15]) * t482;
        const P t491 = c[14] * t479;
        const P t492 = t490 + t491;
        const P t493 = c[16] * t446;
        const P t494 = c[17] * t449;
        const P t495 = t493 + t494;
        const P t496 = c[16] * t449;
        const P t497 = c[17] * t446;
        const P t498 = t496 - t497;
        const P t499 = c[18] * t471;
        const P t500 = c[19] * t474;
        const P t501 = t499 + t500;
        const P t502 = c[18] * t474;
        const P t503 = c[19] * t471;
        const P t504 = t502 - t503;
        const P t505 = P(-c[21], c[21]) * t454;
        const P t506 = c[20] * t457;
        const P t507 = t505 + t506;
        const P t508 = c[21] * t457;
        const P t509 = P(c[20], -c[20]) * t454;
        const P t510 = t508 + t509;
        const P t511 = c[43] * t467;
        const P t512 = flipped<0, 1>(t486);
        // spectrum block of 2
        const P t513 = t511 + t512;
        const P t514 = flipped<1, 0>(t511);
        const P t515 = t486 + t514;
        // complex block of 2
        const P t516 = t498 - t504;
        const P t517 = t495 - t501;
        const P t518 = t498 + t504;
        const P t519 = t495 + t501;
        // complex block of 2
        const P t520 = t510 + t492;
        const P t521 = shuffled<0, 3>(t507, t489);
        const P t522 = shuffled<0, 3>(t489, t507);
        const P t523 = t521 - t522;
        const P t524 = shuffled<0, 3>(t492, t510);
        const P t525 = shuffled<0, 3>(t510, t492);
        const P t526 = t524 - t525;
        const P t527 = t507 + t489;
        // spectrum block of 5, multiplier 2
        const P t528 = t517 + t523;
        const P t529 = t528 + t513;
        const P t530 = c[0] * t517;
        const P t531 = c[1] * t523;
        const P t532 = t530 - t531;
        const P t533 = t532 + t513;
        const P t534 = c[2] * t516;
        const P t535 = P(-c[3], c[3]) * t520;
        const P t536 = t534 + t535;
        const P t537 = t533 - t536;
        const P t538 = t533 + t536;
        const P t539 = c[1] * t517;
        const P t540 = t513 - t539;
        const P t541 = c[0] * t523;
        const P t542 = t540 + t541;
        const P t543 = c[3] * t516;
        const P t544 = P(c[2], -c[2]) * t520;
        const P t545 = t543 + t544;
        const P t546 = t542 - t545;
        const P t547 = t542 + t545;
        const P t548 = flipped<0, 1>(t527);
        // spectrum block of 5, multiplier 2
        const P t549 = t519 + t548;
        const P t550 = flipped<0, 1>(t515);
        const P t551 = t549 + t550;
        const P t552 = c[0] * t519;
        const P t553 = P(-c[1], c[1]) * t527;
        const P t554 = t552 + t553;
        const P t555 = t554 + t550;
        const P t556 = c[2] * t518;
        const P t557 = c[3] * t526;
        const P t558 = t556 + t557;
        const P t559 = t555 - t558;
        const P t560 = t555 + t558;
        const P t561 = P(-c[1], c[1]) * t519;
        const P t562 = t515 + t561;
        const P t563 = c[0] * t527;
        const P t564 = t562 + t563;
        const P t565 = c[3] * t518;
        const P t566 = c[2] * t526;
        const P t567 = t565 - t566;
        const P t568 = flipped<1, 0>(t567);
        const P t569 = t564 + t568;
        const P t570 = flipped<0, 1>(t564);
        const P t571 = t567 + t570;
        const P t572 = flipped<0, 1>(t484);
        // spectrum block of 11, multiplier 2
        const P t573 = t442 + t572;
        // spectrum block of 2
        const P t574 = t432 + t573;
        const P t575 = t432 - t573;
        // spectrum block of 2
        const P t576 = t393 + t529;
        const P t577 = t393 - t529;
        // spectrum block of 2
        const P t578 = t422 + t560;
        const P t579 = t422 - t560;
        // spectrum block of 2
        const P t580 = t410 + t546;
        const P t581 = t410 - t546;
        // spectrum block of 2
        const P t582 = t411 + t547;
        const P t583 = t411 - t547;
        // spectrum block of 2
        const P t584 = t401 + t537;
        const P t585 = t401 - t537;
        // spectrum block of 2
        const P t586 = t421 + t559;
        const P t587 = t421 - t559;
        // spectrum block of 2
        const P t588 = t431 + t571;
        const P t589 = t431 - t571;
        const P t590 = flipped<0, 1>(t569);
        // spectrum block of 2
        const P t591 = t430 + t590;
        const P t592 = t430 - t590;
        // spectrum block of 2
        const P t593 = t402 + t538;
        const P t594 = t402 - t538;
        // spectrum block of 2
        const P t595 = t413 + t551;
        const P t596 = t413 - t551;
        const P x25 = io.pair(25);
        const P x21 = io.pair(21);
        // real block of 2
        const P t597 = x25 + x21;
        const P t598 = x25 - x21;
        const P x27 = io.pair(27);
        const P x19 = io.pair(19);
        // real block of 2
        const P t599 = x27 + x19;
        const P t600 = x27 - x19;
        const P x31 = io.pair(31);
        const P x15 = io.pair(15);
        // real block of 2
        const P t601 = x31 + x15;
        const P t602 = x31 - x15;
        const P x39 = io.pair(39);
        const P x7 = io.pair(7);
        // real block of 2
        const P t603 = x39 + x7;
        const P t604 = x39 - x7;
        const P x9 = io.pair(9);
        const P x37 = io.pair(37);
        // real block of 2
        const P t605 = x9 + x37;
        const P t606 = x9 - x37;
        const P x41 = io.pair(41);
        const P x5 = io.pair(5);
        // real block of 2
        const P t607 = x41 + x5;
        const P t608 = x41 - x5;
        const P x13 = io.pair(13);
        const P x33 = io.pair(33);
        // real block of 2
        const P t609 = x13 + x33;
        const P t610 = x13 - x33;
        const P x3 = io.pair(3);
        const P x43 = io.pair(43);
        // real block of 2
        const P t611 = x3 + x43;
        const P t612 = x3 - x43;
        const P x29 = io.pair(29);
        const P x17 = io.pair(17);
        // real block of 2
        const P t613 = x29 + x17;
        const P t614 = x29 - x17;
        const P x35 = io.pair(35);
        const P x11 = io.pair(11);
        // real block of 2
        const P t615 = x35 + x11;
        const P t616 = x35 - x11;
        const P x1 = io.pair(1);
        const P x45 = io.pair(45);
        // real block of 2
        const P t617 = x1 + x45;
        const P t618 = x1 - x45;
        // real block of 11, multiplier 2
        const P t619 = t599 + t617;
        const P t620 = t599 - t617;
        const P t621 = t615 + t601;
        const P t622 = t615 - t601;
        const P t623 = t603 + t613;
        const P t624 = t603 - t613;
        const P t625 = t605 + t611;
        const P t626 = t605 - t611;
        const P t627 = t609 + t607;
        const P t628 = t609 - t607;
        const P t629 = t619 + t621;
        const P t630 = t629 + t623;
        const P t631 = t630 + t625;
        const P t632 = t631 + t627;
        const P t633 = t632 + t597;
        const P t634 = c[4] * t619;
        const P t635 = c[5] * t621;
        const P t636 = t634 - t635;
        const P t637 = c[6] * t623;
        const P t638 = t636 - t637;
        const P t639 = c[7] * t625;
        const P t640 = t638 - t639;
        const P t641 = c[8] * t627;
        const P t642 = t640 + t641;
        const P t643 = t642 + t597;
        const P t644 = c[9] * t622;
        const P t645 = c[10] * t624;
        const P t646 = t644 + t645;
        const P t647 = c[11] * t626;
        const P t648 = t646 + t647;
        const P t649 = c[12] * t620;
        const P t650 = t648 - t649;
        const P t651 = c[13] * t628;
        const P t652 = t650 - t651;
        const P t653 = c[5] * t619;
        const P t654 = t597 - t653;
        const P t655 = c[7] * t621;
        const P t656 = t654 - t655;
        const P t657 = c[8] * t623;
        const P t658 = t656 + t657;
        const P t659 = c[6] * t625;
        const P t660 = t658 - t659;
        const P t661 = c[4] * t627;
        const P t662 = t660 + t661;
        const P t663 = c[9] * t620;
        const P t664 = c[11] * t622;
        const P t665 = t663 + t664;
        const P t666 = c[13] * t624;
        const P t667 = t665 + t666;
        const P t668 = c[10] * t626;
        const P t669 = t667 + t668;
        const P t670 = c[12] * t628;
        const P t671 = t669 + t670;
        const P t672 = c[6] * t619;
        const P t673 = t597 - t672;
        const P t674 = c[8] * t621;
        const P t675 = t673 + t674;
        const P t676 = c[5] * t623;
        const P t677 = t675 - t676;
        const P t678 = c[4] * t625;
        const P t679 = t677 + t678;
        const P t680 = c[7] * t627;
        const P t681 = t679 - t680;
        const P t682 = c[10] * t620;
        const P t683 = c[13] * t622;
        const P t684 = t682 + t683;
        const P t685 = c[9] * t624;
        const P t686 = t684 + t685;
        const P t687 = c[12] * t626;
        const P t688 = t686 - t687;
        const P t689 = c[11] * t628;
        const P t690 = t688 - t689;
        const P t691 = c[7] * t619;
        const P t692 = t597 - t691;
        const P t693 = c[6] * t621;
        const P t694 = t692 - t693;
        const P t695 = c[4] * t623;
        const P t696 = t694 + t695;
        const P t697 = c[8] * t625;
        const P t698 = t696 + t697;
        const P t699 = c[5] * t627;
        const P t700 = t698 - t699;
        const P t701 = c[11] * t620;
        const P t702 = c[10] * t622;
        const P t703 = t701 + t702;
        const P t704 = c[13] * t626;
        const P t705 = t703 + t704;
        const P t706 = c[12] * t624;
        const P t707 = t705 - t706;
        const P t708 = c[9] * t628;
        const P t709 = t707 - t708;
        const P t710 = c[8] * t619;
        const P t711 = c[4] * t621;
        const P t712 = t710 + t711;
        const P t713 = c[7] * t623;
        const P t714 = t712 - t713;
        const P t715 = c[5] * t625;
        const P t716 = t714 - t715;
        const P t717 = c[6] * t627;
        const P t718 = t716 - t717;
        const P t719 = t718 + t597;
        const P t720 = c[13] * t620;
        const P t721 = c[11] * t624;
        const P t722 = t720 + t721;
        const P t723 = c[9] * t626;
        const P t724 = t722 + t723;
        const P t725 = c[12] * t622;
        const P t726 = t724 - t725;
        const P t727 = c[10] * t628;
        const P t728 = t726 - t727;
        // real block of 11, multiplier 2
        const P t729 = t600 + t618;
        const P t730 = t600 - t618;
        const P t731 = t616 + t602;
        const P t732 = t616 - t602;
        const P t733 = t604 + t614;
        const P t734 = t604 - t614;
        const P t735 = t606 + t612;
        const P t736 = t606 - t612;
        const P t737 = t610 + t608;
        const P t738 = t610 - t608;
        const P t739 = t729 + t731;
        const P t740 = t739 + t733;
        const P t741 = t740 + t735;
        const P t742 = t741 + t737;
        const P t743 = t742 + t598;
        const P t744 = c[4] * t729;
        const P t745 = c[5] * t731;
        const P t746 = t744 - t745;
        const P t747 = c[6] * t733;
        const P t748 = t746 - t747;
        const P t749 = c[7] * t735;
        const P t750 = t748 - t749;
        const P t751 = c[8] * t737;
        const P t752 = t750 + t751;
        const P t753 = t752 + t598;
        const P t754 = c[9] * t732;
        const P t755 = c[10] * t734;
        const P t756 = t754 + t755;
        const P t757 = c[11] * t736;
        const P t758 = t756 + t757;
        const P t759 = c[12] * t730;
        const P t760 = t758 - t759;
        const P t761 = c[13] * t738;
        const P t762 = t760 - t761;
        const P t763 = c[5] * t729;
        const P t764 = t598 - t763;
        const P t765 = c[7] * t731;
        const P t766 = t764 - t765;
        const P t767 = c[8] * t733;
        const P t768 = t766 + t767;
        const P t769 = c[6] * t735;
        const P t770 = t768 - t769;
        const P t771 = c[4] * t737;
        const P t772 = t770 + t771;
        const P t773 = c[9] * t730;
        const P t774 = c[11] * t732;
        const P t775 = t773 + t774;
        const P t776 = c[13] * t734;
        const P t777 = t775 + t776;
        const P t778 = c[10] * t736;
        const P t779 = t777 + t778;
        const P t780 = c[12] * t738;
        const P t781 = t779 + t780;
        const P t782 = c[6] * t729;
        const P t783 = t598 - t782;
        const P t784 = c[8] * t731;
        const P t785 = t783 + t784;
        const P t786 = c[5] * t733;
        const P t787 = t785 - t786;
        const P t788 = c[4] * t735;
        const P t789 = t787 + t788;
        const P t790 = c[7] * t737;
        const P t791 = t789 - t790;
        const P t792 = c[10] * t730;
        const P t793 = c[13] * t732;
        const P t794 = t792 + t793;
        const P t795 = c[9] * t734;
        const P t796 = t794 + t795;
        const P t797 = c[12] * t736;
        const P t798 = t796 - t797;
        const P t799 = c[11] * t738;
        const P t800 = t798 - t799;
        const P t801 = c[7] * t729;
        const P t802 = t598 - t801;
        const P t803 = c[6] * t731;
        const P t804 = t802 - t803;
        const P t805 = c[4] * t733;
        const P t806 = t804 + t805;
        const P t807 = c[8] * t735;
        const P t808 = t806 + t807;
        const P t809 = c[5] * t737;
        const P t810 = t808 - t809;
        const P t811 = c[11] * t730;
        const P t812 = c[10] * t732;
        const P t813 = t811 + t812;
        const P t814 = c[13] * t736;
        const P t815 = t813 + t814;
        const P t816 = c[12] * t734;
        const P t817 = t815 - t816;
        const P t818 = c[9] * t738;
        const P t819 = t817 - t818;
        const P t820 = c[8] * t729;
        const P t821 = c[4] * t731;
        const P t822 = t820 + t821;
        const P t823 = c[7] * t733;
        const P t824 = t822 - t823;
        const P t825 = c[5] * t735;
        const P t826 = t824 - t825;
        const P t827 = c[6] * t737;
        const P t828 = t826 - t827;
        const P t829 = t828 + t598;
        const P t830 = c[13] * t730;
        const P t831 = c[11] * t734;
        const P t832 = t830 + t831;
        const P t833 = c[9] * t736;
        const P t834 = t832 + t833;
        const P t835 = c[12] * t732;
        const P t836 = t834 - t835;
        const P t837 = c[10] * t738;
        const P t838 = t836 - t837;
        const P x23 = io.pair(23);
        // complex block of 23, multiplier 2
        const P t839 = x23 + t633;
        const P t840 = c[44] * t633;
        const P t841 = x23 - t840;
        const P t842 = shuffled<1, 0>(t838);
        const P t843 = P(-c[22], c[22]) * t842;
        const P t844 = shuffled<1, 0>(t829);
        const P t845 = P(c[23], -c[23]) * t844;
        const P t846 = t843 + t845;
        const P t847 = c[23] * t842;
        const P t848 = c[22] * t844;
        const P t849 = t847 + t848;
        const P t850 = c[24] * t643;
        const P t851 = c[25] * t652;
        const P t852 = t850 - t851;
        const P t853 = c[24] * t652;
        const P t854 = c[25] * t643;
        const P t855 = t853 + t854;
        const P t856 = shuffled<1, 0>(t810);
        const P t857 = c[26] * t856;
        const P t858 = shuffled<1, 0>(t819);
        const P t859 = c[27] * t858;
        const P t860 = t857 + t859;
        const P t861 = P(-c[26], c[26]) * t858;
        const P t862 = P(c[27], -c[27]) * t856;
        const P t863 = t861 + t862;
        const P t864 = c[28] * t662;
        const P t865 = c[29] * t671;
        const P t866 = t864 + t865;
        const P t867 = c[28] * t671;
        const P t868 = c[29] * t662;
        const P t869 = t867 - t868;
        const P t870 = shuffled<1, 0>(t800);
        const P t871 = P(-c[30], c[30]) * t870;
        const P t872 = shuffled<1, 0>(t791);
        const P t873 = P(c[31], -c[31]) * t872;
        const P t874 = t871 + t873;
        const P t875 = c[31] * t870;
        const P t876 = c[30] * t872;
        const P t877 = t875 + t876;
        const P t878 = c[32] * t690;
        const P t879 = c[33] * t681;
        const P t880 = t878 - t879;
        const P t881 = c[33] * t690;
        const P t882 = c[32] * t681;
        const P t883 = t881 + t882;
        const P t884 = shuffled<1, 0>(t772);
        const P t885 = c[34] * t884;
        const P t886 = shuffled<1, 0>(t781);
        const P t887 = c[35] * t886;
        const P t888 = t885 + t887;
        const P t889 = P(-c[34], c[34]) * t886;
        const P t890 = P(c[35], -c[35]) * t884;
        const P t891 = t889 + t890;
        const P t892 = c[36] * t700;
        const P t893 = c[37] * t709;
        const P t894 = t892 - t893;
        const P t895 = c[36] * t709;
        const P t896 = c[37] * t700;
        const P t897 = t895 + t896;
        const P t898 = shuffled<1, 0>(t753);
        const P t899 = c[38] * t898;
        const P t900 = shuffled<1, 0>(t762);
        const P t901 = c[39] * t900;
        const P t902 = t899 + t901;
        const P t903 = P(-c[39], c[39]) * t898;
        const P t904 = P(c[38], -c[38]) * t900;
        const P t905 = t903 + t904;
        const P t906 = c[40] * t719;
        const P t907 = c[41] * t728;
        const P t908 = t906 - t907;
        const P t909 = c[40] * t728;
        const P t910 = c[41] * t719;
        const P t911 = t909 + t910;
        // real block of 5
        const P t912 = t908 - t866;
        const P t913 = t866 + t908;
        const P t914 = t880 + t894;
        const P t915 = t880 - t894;
        const P t916 = t912 + t914;
        const P t917 = t916 + t852;
        const P t918 = c[0] * t912;
        const P t919 = c[1] * t914;
        const P t920 = t918 - t919;
        const P t921 = t920 + t852;
        const P t922 = c[2] * t913;
        const P t923 = c[3] * t915;
        const P t924 = t922 + t923;
        const P t925 = c[1] * t912;
        const P t926 = t852 - t925;
        const P t927 = c[0] * t914;
        const P t928 = t926 + t927;
        const P t929 = c[3] * t913;
        const P t930 = c[2] * t915;
        const P t931 = t929 - t930;
        // real block of 5
        const P t932 = t911 - t869;
        const P t933 = t869 + t911;
        const P t934 = t897 - t883;
        const P t935 = t883 + t897;
        const P t936 = t932 + t934;
        const P t937 = t936 + t855;
        const P t938 = c[0] * t932;
        const P t939 = c[1] * t934;
        const P t940 = t938 - t939;
        const P t941 = t940 + t855;
        const P t942 = c[2] * t933;
        const P t943 = c[3] * t935;
        const P t944 = t942 - t943;
        const P t945 = c[1] * t932;
        const P t946 = t855 - t945;
        const P t947 = c[0] * t934;
        const P t948 = t946 + t947;
        const P t949 = c[3] * t933;
        const P t950 = c[2] * t935;
        const P t951 = t949 + t950;
        // spectrum block of 11, multiplier 2
        const P t952 = c[42] * t917;
        const P t953 = t841 - t952;
        const P t954 = c[14] * t951;
        const P t955 = c[15] * t948;
        const P t956 = t954 - t955;
        const P t957 = c[15] * t951;
        const P t958 = c[14] * t948;
        const P t959 = t957 + t958;
        const P t960 = c[16] * t921;
        const P t961 = c[17] * t924;
        const P t962 = t960 + t961;
        const P t963 = c[16] * t924;
        const P t964 = c[17] * t921;
        const P t965 = t963 - t964;
        const P t966 = c[18] * t941;
        const P t967 = c[19] * t944;
        const P t968 = t966 + t967;
        const P t969 = c[18] * t944;
        const P t970 = c[19] * t941;
        const P t971 = t969 - t970;
        const P t972 = c[20] * t931;
        const P t973 = c[21] * t928;
        const P t974 = t972 - t973;
        const P t975 = c[21] * t931;
        const P t976 = c[20] * t928;
        const P t977 = t975 + t976;
        const P t978 = c[43] * t937;
        // spectrum block of 2
        const P t979 = t953 + t978;
        const P t980 = t953 - t978;
        // complex block of 2
        const P t981 = t965 - t971;
        const P t982 = t962 - t968;
        const P t983 = t965 + t971;
        const P t984 = t962 + t968;
        // complex block of 2
        const P t985 = t977 + t959;
        const P t986 = t974 + t956;
        const P t987 = t959 - t977;
        const P t988 = t974 - t956;
        // spectrum block of 5, multiplier 2
        const P t989 = t982 + t986;
        const P t990 = t989 + t979;
        const P t991 = c[0] * t982;
        const P t992 = c[1] * t986;
        const P t993 = t991 - t992;
        const P t994 = t993 + t979;
        const P t995 = c[2] * t981;
        const P t996 = c[3] * t985;
        const P t997 = t995 - t996;
        const P t998 = t994 - t997;
        const P t999 = t994 + t997;
        const P t1000 = c[1] * t982;
        const P t1001 = t979 - t1000;
        const P t1002 = c[0] * t986;
        const P t1003 = t1001 + t1002;
        const P t1004 = c[3] * t981;
        const P t1005 = c[2] * t985;
        const P t1006 = t1004 + t1005;
        const P t1007 = t1003 - t1006;
        const P t1008 = t1003 + t1006;
        // spectrum block of 5, multiplier 2
        const P t1009 = t984 + t988;
        const P t1010 = t1009 + t980;
        const P t1011 = c[0] * t984;
        const P t1012 = c[1] * t988;
        const P t1013 = t1011 - t1012;
        const P t1014 = t1013 + t980;
        const P t1015 = c[2] * t983;
        const P t1016 = c[3] * t987;
        const P t1017 = t1015 + t1016;
        const P t1018 = t1014 - t1017;
        const P t1019 = t1014 + t1017;
        const P t1020 = c[1] * t984;
        const P t1021 = t980 - t1020;
        const P t1022 = c[0] * t988;
        const P t1023 = t1021 + t1022;
        const P t1024 = c[3] * t983;
        const P t1025 = c[2] * t987;
        const P t1026 = t1024 - t1025;
        const P t1027 = t1023 - t1026;
        const P t1028 = t1023 + t1026;
        // spectrum block of 11, multiplier 2
        const P t1029 = t841 + t917;
        const P t1030 = flipped<1, 0>(t888);
        // real block of 5
        const P t1031 = t1030 + t846;
        const P t1032 = flipped<0, 1>(t846);
        const P t1033 = t888 + t1032;
        const P t1034 = flipped<0, 1>(t860);
        const P t1035 = t874 + t1034;
        const P t1036 = t874 - t1034;
        const P t1037 = t1031 + t1035;
        const P t1038 = flipped<1, 0>(t902);
        const P t1039 = t1037 + t1038;
        const P t1040 = c[0] * t1031;
        const P t1041 = c[1] * t1035;
        const P t1042 = t1040 - t1041;
        const P t1043 = t1042 + t1038;
        const P t1044 = c[3] * t1036;
        const P t1045 = P(c[2], -c[2]) * t1033;
        const P t1046 = t1044 + t1045;
        const P t1047 = P(c[1], -c[1]) * t1031;
        const P t1048 = t902 + t1047;
        const P t1049 = flipped<1, 0>(t1048);
        const P t1050 = c[0] * t1035;
        const P t1051 = t1049 + t1050;
        const P t1052 = c[3] * t1033;
        const P t1053 = P(-c[2], c[2]) * t1036;
        const P t1054 = t1052 + t1053;
        const P t1055 = flipped<0, 1>(t849);
        // real block of 5
        const P t1056 = t891 + t1055;
        const P t1057 = t891 - t1055;
        const P t1058 = flipped<1, 0>(t863);
        const P t1059 = t877 + t1058;
        const P t1060 = flipped<0, 1>(t877);
        const P t1061 = t863 + t1060;
        const P t1062 = flipped<0, 1>(t1059);
        const P t1063 = t1056 + t1062;
        const P t1064 = t1063 - t905;
        const P t1065 = c[0] * t1056;
        const P t1066 = P(-c[1], c[1]) * t1059;
        const P t1067 = t1065 + t1066;
        const P t1068 = t1067 - t905;
        const P t1069 = c[3] * t1061;
        const P t1070 = c[2] * t1057;
        const P t1071 = t1069 - t1070;
        const P t1072 = c[1] * t1056;
        const P t1073 = t905 + t1072;
        const P t1074 = flipped<1, 0>(t1073);
        const P t1075 = c[0] * t1059;
        const P t1076 = t1074 + t1075;
        const P t1077 = c[3] * t1057;
        const P t1078 = c[2] * t1061;
        const P t1079 = t1077 + t1078;
        const P t1080 = shuffled<1, 0>(t743);
        // complex block of 23, multiplier 2
        const P t1081 = c[45] * t1080;
        // spectrum block of 11, multiplier 2
        const P t1082 = P(-c[42], c[42]) * t1039;
        const P t1083 = t1081 + t1082;
        const P t1084 = c[15] * t1076;
        const P t1085 = P(c[14], -c[14]) * t1079;
        const P t1086 = t1084 + t1085;
        const P t1087 = P(-c[15], c[15]) * t1079;
        const P t1088 = c[14] * t1076;
        const P t1089 = t1087 + t1088;
        const P t1090 = c[16] * t1043;
        const P t1091 = c[17] * t1046;
        const P t1092 = t1090 + t1091;
        const P t1093 = c[16] * t1046;
        const P t1094 = c[17] * t1043;
        const P t1095 = t1093 - t1094;
        const P t1096 = c[18] * t1068;
        const P t1097 = c[19] * t1071;
        const P t1098 = t1096 + t1097;
        const P t1099 = c[18] * t1071;
        const P t1100 = c[19] * t1068;
        const P t1101 = t1099 - t1100;
        const P t1102 = P(-c[21], c[21]) * t1051;
        const P t1103 = c[20] * t1054;
        const P t1104 = t1102 + t1103;
        const P t1105 = c[21] * t1054;
        const P t1106 = P(c[20], -c[20]) * t1051;
        const P t1107 = t1105 + t1106;
        const P t1108 = c[43] * t1064;
        const P t1109 = flipped<0, 1>(t1083);
        // spectrum block of 2
        const P t1110 = t1108 + t1109;
        const P t1111 = flipped<1, 0>(t1108);
        const P t1112 = t1083 + t1111;
        // complex block of 2
        const P t1113 = t1095 - t1101;
        const P t1114 = t1092 - t1098;
        const P t1115 = t1095 + t1101;
        const P t1116 = t1092 + t1098;
        // complex block of 2
        const P t1117 = t1107 + t1089;
        const P t1118 = shuffled<0, 3>(t1104, t1086);
        const P t1119 = shuffled<0, 3>(t1086, t1104);
        const P t1120 = t1118 - t1119;
        const P t1121 = shuffled<0, 3>(t1089, t1107);
        const P t1122 = shuffled<0, 3>(t1107, t1089);
        const P t1123 = t1121 - t1122;
        const P t1124 = t1104 + t1086;
        // spectrum block of 5, multiplier 2
        const P t1125 = t1114 + t1120;
        const P t1126 = t1125 + t1110;
        const P t1127 = c[0] * t1114;
        const P t1128 = c[1] * t1120;
        const P t1129 = t1127 - t1128;
        const P t1130 = t1129 + t1110;
        const P t1131 = c[2] * t1113;
        const P t1132 = P(-c[3], c[3]) * t1117;
        const P t1133 = t1131 + t1132;
        const P t1134 = t1130 - t1133;
        const P t1135 = t1130 + t1133;
        const P t1136 = c[1] * t1114;
        const P t1137 = t1110 - t1136;
        const P t1138 = c[0] * t1120;
        const P t1139 = t1137 + t1138;
        const P t1140 = c[3] * t1113;
        const P t1141 = P(c[2], -c[2]) * t1117;
        const P t1142 = t1140 + t1141;
        const P t1143 = t1139 - t1142;
        const P t1144 = t1139 + t1142;
        const P t1145 = flipped<0, 1>(t1124);
        // spectrum block of 5, multiplier 2
        const P t1146 = t1116 + t1145;
        const P t1147 = flipped<0, 1>(t1112);
        const P t1148 = t1146 + t1147;
        const P t1149 = c[0] * t1116;
        const P t1150 = P(-c[1], c[1]) * t1124;
        const P t1151 = t1149 + t1150;
        const P t1152 = t1151 + t1147;
        const P t1153 = c[2] * t1115;
        const P t1154 = c[3] * t1123;
        const P t1155 = t1153 + t1154;
        const P t1156 = t1152 - t1155;
        const P t1157 = t1152 + t1155;
        const P t1158 = P(-c[1], c[1]) * t1116;
        const P t1159 = t1112 + t1158;
        const P t1160 = c[0] * t1124;
        const P t1161 = t1159 + t1160;
        const P t1162 = c[3] * t1115;
        const P t1163 = c[2] * t1123;
        const P t1164 = t1162 - t1163;
        const P t1165 = flipped<1, 0>(t1164);
        const P t1166 = t1161 + t1165;
        const P t1167 = flipped<0, 1>(t1161);
        const P t1168 = t1164 + t1167;
        const P t1169 = flipped<0, 1>(t1081);
        // spectrum block of 11, multiplier 2
        const P t1170 = t1039 + t1169;
        // spectrum block of 2
        const P t1171 = t1029 + t1170;
        const P t1172 = t1029 - t1170;
        // spectrum block of 2
        const P t1173 = t990 + t1126;
        const P t1174 = t990 - t1126;
        // spectrum block of 2
        const P t1175 = t1019 + t1157;
        const P t1176 = t1019 - t1157;
        // spectrum block of 2
        const P t1177 = t1007 + t1143;
        const P t1178 = t1007 - t1143;
        // spectrum block of 2
        const P t1179 = t1008 + t1144;
        const P t1180 = t1008 - t1144;
        // spectrum block of 2
        const P t1181 = t998 + t1134;
        const P t1182 = t998 - t1134;
        // spectrum block of 2
        const P t1183 = t1018 + t1156;
        const P t1184 = t1018 - t1156;
        // spectrum block of 2
        const P t1185 = t1028 + t1168;
        const P t1186 = t1028 - t1168;
        const P t1187 = flipped<0, 1>(t1166);
        // spectrum block of 2
        const P t1188 = t1027 + t1187;
        const P t1189 = t1027 - t1187;
        // spectrum block of 2
        const P t1190 = t999 + t1135;
        const P t1191 = t999 - t1135;
        // spectrum block of 2
        const P t1192 = t1010 + t1148;
        const P t1193 = t1010 - t1148;
        // complex block of 2
        const P t1194 = t242 + t839;
        io.pair(0, t1194);
        const P t1195 = t242 - t839;
        io.pair(23, t1195);
        // complex block of 2
        const P t1196 = t574 + t1171;
        io.pair(2, t1196);
        const P t1197 = t574 - t1171;
        io.pair(25, t1197);
        // complex block of 2
        const P t1198 = t595 + t1192;
        io.pair(4, t1198);
        const P t1199 = t595 - t1192;
        io.pair(27, t1199);
        // complex block of 2
        const P t1200 = t580 + t1177;
        io.pair(6, t1200);
        const P t1201 = t580 - t1177;
        io.pair(29, t1201);
        // complex block of 2
        const P t1202 = t593 + t1190;
        io.pair(8, t1202);
        const P t1203 = t593 - t1190;
        io.pair(31, t1203);
        // complex block of 2
        const P t1204 = t585 + t1182;
        io.pair(10, t1204);
        const P t1205 = t585 - t1182;
        io.pair(33, t1205);
        // complex block of 2
        const P t1206 = t578 + t1175;
        io.pair(12, t1206);
        const P t1207 = t578 - t1175;
        io.pair(35, t1207);
        // complex block of 2
        const P t1208 = t589 + t1186;
        io.pair(14, t1208);
        const P t1209 = t589 - t1186;
        io.pair(37, t1209);
        // complex block of 2
        const P t1210 = t591 + t1188;
        io.pair(16, t1210);
        const P t1211 = t591 - t1188;
        io.pair(39, t1211);
        // complex block of 2
        const P t1212 = t586 + t1183;
        io.pair(18, t1212);
        const P t1213 = t586 - t1183;
        io.pair(41, t1213);
        // complex block of 2
        const P t1214 = t583 + t1180;
        io.pair(20, t1214);
        const P t1215 = t583 - t1180;
        io.pair(43, t1215);
        // complex block of 2
        const P t1216 = t577 + t1174;
        io.pair(22, t1216);
        const P t1217 = t577 - t1174;
        io.pair(45, t1217);
        // complex block of 2
        const P t1218 = t576 + t1173;
        io.pair(24, t1218);
        const P t1219 = t576 - t1173;
        io.pair(1, t1219);
        // complex block of 2
        const P t1220 = t582 + t1179;
        io.pair(26, t1220);
        const P t1221 = t582 - t1179;
        io.pair(3, t1221);
        // complex block of 2
        const P t1222 = t587 + t1184;
        io.pair(28, t1222);
        const P t1223 = t587 - t1184;
        io.pair(5, t1223);
        // complex block of 2
        const P t1224 = t592 + t1189;
        io.pair(30, t1224);
        const P t1225 = t592 - t1189;
        io.pair(7, t1225);
        // complex block of 2
        const P t1226 = t588 + t1185;
        io.pair(32, t1226);
        const P t1227 = t588 - t1185;
        io.pair(9, t1227);
        // complex block of 2
        const P t1228 = t579 + t1176;
        io.pair(34, t1228);
        const P t1229 = t579 - t1176;
        io.pair(11, t1229);
        // complex block of 2
        const P t1230 = t584 + t1181;
        io.pair(36, t1230);
        const P t1231 = t584 - t1181;
        io.pair(13, t1231);
        // complex block of 2
        const P t1232 = t594 + t1191;
        io.pair(38, t1232);
        const P t1233 = t594 - t1191;
        io.pair(15, t1233);
        // complex block of 2
        const P t1234 = t581 + t1178;
        io.pair(40, t1234);
        const P t1235 = t581 - t1178;
        io.pair(17, t1235);
        // complex block of 2
        const P t1236 = t596 + t1193;
        io.pair(42, t1236);
        const P t1237 = t596 - t1193;
        io.pair(19, t1237);
        // complex block of 2
        const P t1238 = t575 + t1172;
        io.pair(44, t1238);
        const P t1239 = t575 - t1172;
        io.pair(21, t1239);
    }
};

}  // namespace zulg
