// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 23.
// Complex DFT of 23 points, Rader block; one complex number to a register.
// 186 sums, 138 differences, 244 products of registers, which do the 1174 steps of the graph, those with
// `scale` included; 23 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<23> {
    static constexpr int steps = 1174;  // with `scale`
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
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
        0.030342906933726127,  // c[20]: -P[4] of 11
        0.6626305969383026,  // c[21]: -Q[4] of 11
        0.4304011613922187,  // c[22]: Q[1] of 23
        0.06955203016683642,  // c[23]: P[1] of 23
        0.04453017869194607,  // c[24]: P[2] of 23
        0.43370463199482034,  // c[25]: Q[2] of 23
        0.33652924658242556,  // c[26]: -Q[3] of 23
        0.27718353274096963,  // c[27]: P[3] of 23
        0.37256465572342584,  // c[28]: P[4] of 23
        0.22644695169903334,  // c[29]: Q[4] of 23
        0.005975249750696167,  // c[30]: -Q[5] of 23
        0.43594373606982356,  // c[31]: P[5] of 23
        0.16641042622004737,  // c[32]: P[6] of 23
        0.4029766924691319,  // c[33]: Q[6] of 23
        0.17583093692664623,  // c[34]: P[7] of 23
        0.3989562961623703,  // c[35]: Q[7] of 23
        0.43595445213547385,  // c[36]: -Q[8] of 23
        0.005134227435360646,  // c[37]: -P[8] of 23
        0.43504853203320293,  // c[38]: -Q[9] of 23
        0.028555549440596593,  // c[39]: -P[9] of 23
        0.4300007996022861,  // c[40]: P[10] of 23
        0.07198581089002037,  // c[41]: -Q[10] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x22 = io.pair(22);
        // real block of 2
        const P t0 = x1 + x22;
        const P t1 = x1 - x22;
        const P x2 = io.pair(2);
        const P x21 = io.pair(21);
        // real block of 2
        const P t2 = x2 + x21;
        const P t3 = x2 - x21;
        const P x4 = io.pair(4);
        const P x19 = io.pair(19);
        // real block of 2
        const P t4 = x4 + x19;
        const P t5 = x4 - x19;
        const P x8 = io.pair(8);
        const P x15 = io.pair(15);
        // real block of 2
        const P t6 = x8 + x15;
        const P t7 = x8 - x15;
        const P x16 = io.pair(16);
        const P x7 = io.pair(7);
        // real block of 2
        const P t8 = x16 + x7;
        const P t9 = x16 - x7;
        const P x9 = io.pair(9);
        const P x14 = io.pair(14);
        // real block of 2
        const P t10 = x9 + x14;
        const P t11 = x9 - x14;
        const P x18 = io.pair(18);
        const P x5 = io.pair(5);
        // real block of 2
        const P t12 = x18 + x5;
        const P t13 = x18 - x5;
        const P x13 = io.pair(13);
        const P x10 = io.pair(10);
        // real block of 2
        const P t14 = x13 + x10;
        const P t15 = x13 - x10;
        const P x3 = io.pair(3);
        const P x20 = io.pair(20);
        // real block of 2
        const P t16 = x3 + x20;
        const P t17 = x3 - x20;
        const P x6 = io.pair(6);
        const P x17 = io.pair(17);
        // real block of 2
        const P t18 = x6 + x17;
        const P t19 = x6 - x17;
        const P x12 = io.pair(12);
        const P x11 = io.pair(11);
        // real block of 2
        const P t20 = x12 + x11;
        const P t21 = x12 - x11;
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
        // complex block of 23
        const P t242 = x0 + t36;
        io.pair(0, t242);
        const P t243 = c[44] * t36;
        const P t244 = x0 - t243;
        const P t245 = shuffled<1, 0>(t232);
        const P t246 = c[22] * t245;
        const P t247 = shuffled<1, 0>(t241);
        const P t248 = c[23] * t247;
        const P t249 = t246 + t248;
        const P t250 = P(-c[22], c[22]) * t247;
        const P t251 = P(c[23], -c[23]) * t245;
        const P t252 = t250 + t251;
        const P t253 = c[24] * t46;
        const P t254 = c[25] * t55;
        const P t255 = t253 - t254;
        const P t256 = c[24] * t55;
        const P t257 = c[25] * t46;
        const P t258 = t256 + t257;
        const P t259 = shuffled<1, 0>(t213);
        const P t260 = P(-c[26], c[26]) * t259;
        const P t261 = shuffled<1, 0>(t222);
        const P t262 = P(c[27], -c[27]) * t261;
        const P t263 = t260 + t262;
        const P t264 = c[26] * t261;
        const P t265 = c[27] * t259;
        const P t266 = t264 + t265;
        const P t267 = c[28] * t65;
        const P t268 = c[29] * t74;
        const P t269 = t267 + t268;
        const P t270 = c[29] * t65;
        const P t271 = c[28] * t74;
        const P t272 = t270 - t271;
        const P t273 = shuffled<1, 0>(t194);
        const P t274 = P(-c[30], c[30]) * t273;
        const P t275 = shuffled<1, 0>(t203);
        const P t276 = P(c[31], -c[31]) * t275;
        const P t277 = t274 + t276;
        const P t278 = c[30] * t275;
        const P t279 = c[31] * t273;
        const P t280 = t278 + t279;
        const P t281 = c[32] * t84;
        const P t282 = c[33] * t93;
        const P t283 = t281 - t282;
        const P t284 = c[32] * t93;
        const P t285 = c[33] * t84;
        const P t286 = t284 + t285;
        const P t287 = shuffled<1, 0>(t184);
        const P t288 = P(-c[34], c[34]) * t287;
        const P t289 = shuffled<1, 0>(t175);
        const P t290 = P(c[35], -c[35]) * t289;
        const P t291 = t288 + t290;
        const P t292 = c[35] * t287;
        const P t293 = c[34] * t289;
        const P t294 = t292 + t293;
        const P t295 = c[36] * t112;
        const P t296 = c[37] * t103;
        const P t297 = t295 - t296;
        const P t298 = c[37] * t112;
        const P t299 = c[36] * t103;
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
        const P t311 = t309 + t310;
        const P t312 = c[40] * t131;
        const P t313 = c[41] * t122;
        const P t314 = t312 - t313;
        // real block of 5
        const P t315 = t280 + t266;
        const P t316 = flipped<1, 0>(t252);
        const P t317 = t294 + t316;
        const P t318 = c[0] * t317;
        const V t319 = part<0>(t318);
        const V t320 = part<0>(t315);
        const V t321 = c[1] * t320;
        const V t322 = t319 + t321;
        const V t323 = part<0>(t308);
        const P t324 = c[1] * t317;
        const V t325 = part<0>(t324);
        const V t326 = t323 + t325;
        // real block of 5
        const P t327 = t269 + t311;
        const P t328 = t269 - t311;
        const P t329 = t283 + t297;
        const P t330 = t283 - t297;
        const P t331 = t327 + t329;
        const P t332 = t331 + t255;
        const P t333 = c[0] * t327;
        const P t334 = c[1] * t329;
        const P t335 = t333 - t334;
        const P t336 = t335 + t255;
        const P t337 = c[2] * t330;
        const P t338 = c[3] * t328;
        const P t339 = t337 - t338;
        const P t340 = c[1] * t327;
        const P t341 = t255 - t340;
        const P t342 = c[0] * t329;
        const P t343 = t341 + t342;
        const P t344 = c[2] * t328;
        const P t345 = c[3] * t330;
        const P t346 = t344 + t345;
        // real block of 5
        const P t347 = t314 - t272;
        const P t348 = t272 + t314;
        const P t349 = t286 - t300;
        const P t350 = t286 + t300;
        const P t351 = t347 + t349;
        const P t352 = t351 + t258;
        const P t353 = c[0] * t347;
        const P t354 = c[1] * t349;
        const P t355 = t353 - t354;
        const P t356 = t355 + t258;
        const P t357 = c[3] * t348;
        const P t358 = c[2] * t350;
        const P t359 = t357 + t358;
        const P t360 = c[1] * t347;
        const P t361 = t258 - t360;
        const P t362 = c[0] * t349;
        const P t363 = t361 + t362;
        const P t364 = c[2] * t348;
        const P t365 = c[3] * t350;
        const P t366 = t364 - t365;
        // spectrum block of 11, multiplier 2
        const P t367 = c[42] * t332;
        const P t368 = t244 - t367;
        const P t369 = c[14] * t366;
        const P t370 = c[15] * t363;
        const P t371 = t369 - t370;
        const P t372 = c[15] * t366;
        const P t373 = c[14] * t363;
        const P t374 = t372 + t373;
        const P t375 = c[16] * t336;
        const P t376 = c[17] * t339;
        const P t377 = t375 + t376;
        const P t378 = c[16] * t339;
        const P t379 = c[17] * t336;
        const P t380 = t378 - t379;
        const P t381 = c[18] * t356;
        const P t382 = c[19] * t359;
        const P t383 = t381 + t382;
        const P t384 = c[18] * t359;
        const P t385 = c[19] * t356;
        const P t386 = t384 - t385;
        const P t387 = c[20] * t343;
        const P t388 = c[21] * t346;
        const P t389 = t387 + t388;
        const P t390 = c[20] * t346;
        const P t391 = c[21] * t343;
        const P t392 = t390 - t391;
        const P t393 = c[43] * t352;
        // spectrum block of 2
        const P t394 = t368 + t393;
        const P t395 = t368 - t393;
        // complex block of 2
        const P t396 = t380 - t386;
        const P t397 = t377 - t383;
        const P t398 = t380 + t386;
        const P t399 = t377 + t383;
        // complex block of 2
        const P t400 = t392 - t374;
        const P t401 = t371 - t389;
        const P t402 = t392 + t374;
        const P t403 = t389 + t371;
        // spectrum block of 5, multiplier 2
        const P t404 = t397 + t401;
        const P t405 = t404 + t394;
        const P t406 = c[0] * t397;
        const P t407 = c[1] * t401;
        const P t408 = t406 - t407;
        const P t409 = t408 + t394;
        const P t410 = c[3] * t396;
        const P t411 = c[2] * t400;
        const P t412 = t410 + t411;
        const P t413 = t409 - t412;
        const P t414 = t409 + t412;
        const P t415 = c[1] * t397;
        const P t416 = t394 - t415;
        const P t417 = c[0] * t401;
        const P t418 = t416 + t417;
        const P t419 = c[2] * t396;
        const P t420 = c[3] * t400;
        const P t421 = t419 - t420;
        const P t422 = t418 - t421;
        const P t423 = t418 + t421;
        // spectrum block of 5, multiplier 2
        const P t424 = t399 - t403;
        const P t425 = t424 + t395;
        const P t426 = c[0] * t399;
        const P t427 = c[1] * t403;
        const P t428 = t426 + t427;
        const P t429 = t428 + t395;
        const P t430 = c[3] * t398;
        const P t431 = c[2] * t402;
        const P t432 = t430 + t431;
        const P t433 = t429 - t432;
        const P t434 = t429 + t432;
        const P t435 = c[1] * t399;
        const P t436 = t395 - t435;
        const P t437 = c[0] * t403;
        const P t438 = t436 - t437;
        const P t439 = c[2] * t398;
        const P t440 = c[3] * t402;
        const P t441 = t439 - t440;
        const P t442 = t438 - t441;
        const P t443 = t438 + t441;
        // spectrum block of 11, multiplier 2
        const P t444 = t244 + t332;
        const P t445 = flipped<0, 1>(t249);
        // real block of 5
        const P t446 = t291 + t445;
        const P t447 = t291 - t445;
        const P t448 = t277 + t263;
        const P t449 = t277 - t263;
        const P t450 = t446 + t448;
        const P t451 = flipped<1, 0>(t305);
        const P t452 = t450 + t451;
        const P t453 = c[0] * t446;
        const P t454 = c[1] * t448;
        const P t455 = t453 - t454;
        const P t456 = t455 + t451;
        const P t457 = c[2] * t449;
        const P t458 = c[3] * t447;
        const P t459 = t457 - t458;
        const P t460 = P(c[1], -c[1]) * t446;
        const P t461 = t305 + t460;
        const P t462 = flipped<1, 0>(t461);
        const P t463 = c[0] * t448;
        const P t464 = t462 + t463;
        const P t465 = c[2] * t447;
        const P t466 = c[3] * t449;
        const P t467 = t465 + t466;
        const P t468 = flipped<0, 1>(t294);
        // real block of 5
        const P t469 = t252 + t468;
        const P t470 = shuffled<0, 3>(t266, t280);
        const P t471 = shuffled<0, 3>(t280, t266);
        const P t472 = t470 - t471;
        const P t473 = shuffled<0, 3>(t317, t315);
        const P t474 = shuffled<0, 3>(t315, t317);
        const P t475 = t473 - t474;
        const P t476 = t475 - t308;
        const V t477 = part<1>(t308);
        const V t478 = part<1>(t318);
        // real block of 5
        const V t479 = t477 + t478;
        const P t480 = joined(t322, t479);
        const V t481 = part<1>(t473);
        const V t482 = -c[1] * t481;
        const P t483 = joined(t323, t482);
        // real block of 5
        const P t484 = t480 - t483;
        const P t485 = c[2] * t472;
        const P t486 = c[3] * t469;
        const P t487 = t485 - t486;
        const V t488 = part<1>(t324);
        // real block of 5
        const V t489 = c[0] * t481;
        const V t490 = t488 + t489;
        const P t491 = joined(t326, t490);
        // real block of 5
        const V t492 = -c[0] * t320;
        const P t493 = joined(t492, t477);
        const P t494 = t491 - t493;
        const P t495 = c[2] * t469;
        const P t496 = c[3] * t472;
        const P t497 = t495 + t496;
        const P t498 = shuffled<1, 0>(t146);
        // complex block of 23
        const P t499 = c[45] * t498;
        // spectrum block of 11, multiplier 2
        const P t500 = P(-c[42], c[42]) * t452;
        const P t501 = t499 + t500;
        const P t502 = c[15] * t494;
        const P t503 = P(-c[14], c[14]) * t497;
        const P t504 = t502 + t503;
        const P t505 = c[14] * t494;
        const P t506 = P(c[15], -c[15]) * t497;
        const P t507 = t505 + t506;
        const P t508 = c[16] * t456;
        const P t509 = c[17] * t459;
        const P t510 = t508 + t509;
        const P t511 = c[16] * t459;
        const P t512 = c[17] * t456;
        const P t513 = t511 - t512;
        const P t514 = c[18] * t484;
        const P t515 = P(c[19], -c[19]) * t487;
        const P t516 = t514 + t515;
        const P t517 = c[18] * t487;
        const P t518 = P(-c[19], c[19]) * t484;
        const P t519 = t517 + t518;
        const P t520 = c[20] * t464;
        const P t521 = c[21] * t467;
        const P t522 = t520 + t521;
        const P t523 = c[20] * t467;
        const P t524 = c[21] * t464;
        const P t525 = t523 - t524;
        const P t526 = c[43] * t476;
        const P t527 = flipped<0, 1>(t501);
        // spectrum block of 2
        const P t528 = t526 + t527;
        const P t529 = flipped<1, 0>(t526);
        const P t530 = t501 + t529;
        // complex block of 2
        const P t531 = t513 - t519;
        const P t532 = flipped<1, 0>(t516);
        const P t533 = t510 + t532;
        const P t534 = t513 + t519;
        const P t535 = t510 - t532;
        const P t536 = flipped<0, 1>(t507);
        // complex block of 2
        const P t537 = t525 + t536;
        const P t538 = flipped<1, 0>(t522);
        const P t539 = t538 + t504;
        const P t540 = t525 - t536;
        const P t541 = t504 - t538;
        const P t542 = flipped<0, 1>(t539);
        // spectrum block of 5, multiplier 2
        const P t543 = t533 + t542;
        const P t544 = t543 + t528;
        const P t545 = c[0] * t533;
        const P t546 = P(-c[1], c[1]) * t539;
        const P t547 = t545 + t546;
        const P t548 = t547 + t528;
        const P t549 = c[3] * t531;
        const P t550 = c[2] * t537;
        const P t551 = t549 + t550;
        const P t552 = t548 - t551;
        const P t553 = t548 + t551;
        const P t554 = c[1] * t533;
        const P t555 = t528 - t554;
        const P t556 = P(c[0], -c[0]) * t539;
        const P t557 = t555 + t556;
        const P t558 = c[2] * t531;
        const P t559 = c[3] * t537;
        const P t560 = t558 - t559;
        const P t561 = t557 - t560;
        const P t562 = t557 + t560;
        const P t563 = flipped<1, 0>(t541);
        // spectrum block of 5, multiplier 2
        const P t564 = t535 + t563;
        const P t565 = flipped<0, 1>(t530);
        const P t566 = t564 + t565;
        const P t567 = c[0] * t535;
        const P t568 = P(c[1], -c[1]) * t541;
        const P t569 = t567 + t568;
        const P t570 = t569 + t565;
        const P t571 = c[3] * t534;
        const P t572 = c[2] * t540;
        const P t573 = t571 + t572;
        const P t574 = t570 - t573;
        const P t575 = t570 + t573;
        const P t576 = P(-c[1], c[1]) * t535;
        const P t577 = t530 + t576;
        const P t578 = P(-c[0], c[0]) * t541;
        const P t579 = flipped<0, 1>(t577);
        const P t580 = t578 + t579;
        const P t581 = c[2] * t534;
        const P t582 = c[3] * t540;
        const P t583 = t581 - t582;
        const P t584 = t580 - t583;
        const P t585 = t580 + t583;
        const P t586 = flipped<0, 1>(t499);
        // spectrum block of 11, multiplier 2
        const P t587 = t452 + t586;
        // spectrum block of 2
        const P t588 = t444 + t587;
        io.pair(1, t588);
        const P t589 = t444 - t587;
        io.pair(22, t589);
        // spectrum block of 2
        const P t590 = t405 + t544;
        io.pair(12, t590);
        const P t591 = t405 - t544;
        io.pair(11, t591);
        // spectrum block of 2
        const P t592 = t434 + t575;
        io.pair(6, t592);
        const P t593 = t434 - t575;
        io.pair(17, t593);
        // spectrum block of 2
        const P t594 = t422 + t561;
        io.pair(3, t594);
        const P t595 = t422 - t561;
        io.pair(20, t595);
        // spectrum block of 2
        const P t596 = t423 + t562;
        io.pair(13, t596);
        const P t597 = t423 - t562;
        io.pair(10, t597);
        // spectrum block of 2
        const P t598 = t413 + t552;
        io.pair(18, t598);
        const P t599 = t413 - t552;
        io.pair(5, t599);
        // spectrum block of 2
        const P t600 = t433 + t574;
        io.pair(9, t600);
        const P t601 = t433 - t574;
        io.pair(14, t601);
        // spectrum block of 2
        const P t602 = t443 + t585;
        io.pair(16, t602);
        const P t603 = t443 - t585;
        io.pair(7, t603);
        // spectrum block of 2
        const P t604 = t442 + t584;
        io.pair(8, t604);
        const P t605 = t442 - t584;
        io.pair(15, t605);
        // spectrum block of 2
        const P t606 = t414 + t553;
        io.pair(4, t606);
        const P t607 = t414 - t553;
        io.pair(19, t607);
        // spectrum block of 2
        const P t608 = t425 + t566;
        io.pair(2, t608);
        const P t609 = t425 - t566;
        io.pair(21, t609);
    }
};

}  // namespace zulg
