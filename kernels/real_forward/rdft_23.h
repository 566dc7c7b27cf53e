// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 23.
// Forward DFT of 23 real points, Rader 2, 11.
// 160 additions, 140 subtractions, 242 multiplications (265 with `scale`); 4 outputs negated; 46 constants; 35 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<23> {
    static constexpr int steps = 565;  // with `scale`
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
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
        0.9096319953545183,  // c[9]: sin 2 pi 2/11
        0.7557495743542583,  // c[10]: -sin 2 pi 18/11
        0.28173255684142967,  // c[11]: -sin 2 pi 6/11
        0.9898214418809327,  // c[12]: -sin 2 pi 8/11
        0.5406408174555976,  // c[13]: sin 2 pi 12/11
        0.19106037559687397,  // c[14]: -P[1] of 11
        0.635213297150478,  // c[15]: -Q[1] of 11
        0.4025393125514894,  // c[16]: Q[2] of 11
        0.5272211128649671,  // c[17]: P[2] of 11
        0.5082556049431003,  // c[18]: -P[3] of 11
        0.4262349587304204,  // c[19]: Q[3] of 11
        0.5182443007085755,  // c[20]: Q[4] of 11
        0.41403241996621415,  // c[21]: P[4] of 11
        0.4304011613922187,  // c[22]: -Q[1] of 23
        0.06955203016683642,  // c[23]: P[1] of 23
        0.43370463199482034,  // c[24]: Q[2] of 23
        0.04453017869194607,  // c[25]: P[2] of 23
        0.33652924658242556,  // c[26]: Q[3] of 23
        0.27718353274096963,  // c[27]: P[3] of 23
        0.22644695169903334,  // c[28]: Q[4] of 23
        0.37256465572342584,  // c[29]: P[4] of 23
        0.005975249750696167,  // c[30]: Q[5] of 23
        0.43594373606982356,  // c[31]: P[5] of 23
        0.4029766924691319,  // c[32]: Q[6] of 23
        0.16641042622004737,  // c[33]: P[6] of 23
        0.3989562961623703,  // c[34]: -Q[7] of 23
        0.17583093692664623,  // c[35]: P[7] of 23
        0.43595445213547385,  // c[36]: -Q[8] of 23
        0.005134227435360646,  // c[37]: -P[8] of 23
        0.43504853203320293,  // c[38]: Q[9] of 23
        0.028555549440596593,  // c[39]: -P[9] of 23
        0.07198581089002037,  // c[40]: -Q[10] of 23
        0.4300007996022861,  // c[41]: P[10] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: -beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x1 = io.in(1);
        const V x22 = io.in(22);
        const V t0 = x1 + x22;
        const V t1 = x1 - x22;
        // real block of 2
        const V x2 = io.in(2);
        const V x21 = io.in(21);
        const V t2 = x2 + x21;
        const V t3 = x2 - x21;
        // real block of 2
        const V x4 = io.in(4);
        const V x19 = io.in(19);
        const V t4 = x4 + x19;
        const V t5 = x4 - x19;
        // real block of 2
        const V x8 = io.in(8);
        const V x15 = io.in(15);
        const V t6 = x8 + x15;
        const V t7 = x8 - x15;
        // real block of 2
        const V x16 = io.in(16);
        const V x7 = io.in(7);
        const V t8 = x16 + x7;
        const V t9 = x16 - x7;
        // real block of 2
        const V x9 = io.in(9);
        const V x14 = io.in(14);
        const V t10 = x9 + x14;
        const V t11 = x9 - x14;
        // real block of 2
        const V x18 = io.in(18);
        const V x5 = io.in(5);
        const V t12 = x18 + x5;
        const V t13 = x18 - x5;
        // real block of 2
        const V x13 = io.in(13);
        const V x10 = io.in(10);
        const V t14 = x13 + x10;
        const V t15 = x13 - x10;
        // real block of 2
        const V x3 = io.in(3);
        const V x20 = io.in(20);
        const V t16 = x3 + x20;
        const V t17 = x3 - x20;
        // real block of 2
        const V x6 = io.in(6);
        const V x17 = io.in(17);
        const V t18 = x6 + x17;
        const V t19 = x6 - x17;
        // real block of 2
        const V x12 = io.in(12);
        const V x11 = io.in(11);
        const V t20 = x12 + x11;
        const V t21 = x12 - x11;
        // real block of 11, multiplier 2
        const V t22 = t2 + t20;
        const V t23 = t2 - t20;
        const V t24 = t18 + t4;
        const V t25 = t18 - t4;
        const V t26 = t6 + t16;
        const V t27 = t6 - t16;
        const V t28 = t8 + t14;
        const V t29 = t8 - t14;
        const V t30 = t12 + t10;
        const V t31 = t12 - t10;
        const V t32 = t22 + t24;
        const V t33 = t32 + t26;
        const V t34 = t33 + t28;
        const V t35 = t34 + t30;
        const V t36 = t35 + t0;
        const V t37 = c[4] * t22;
        const V t38 = c[5] * t24;
        const V t39 = t37 - t38;
        const V t40 = c[6] * t26;
        const V t41 = t39 - t40;
        const V t42 = c[7] * t28;
        const V t43 = t41 - t42;
        const V t44 = c[8] * t30;
        const V t45 = t43 + t44;
        const V t46 = t45 + t0;
        const V t47 = c[9] * t23;
        const V t48 = c[10] * t25;
        const V t49 = c[11] * t27;
        const V t50 = c[12] * t29;
        const V t51 = c[13] * t31;
        const V t52 = t48 + t49;
        const V t53 = t52 + t50;
        const V t54 = t53 - t47;
        const V t55 = t54 - t51;
        const V t56 = c[5] * t22;
        const V t57 = t0 - t56;
        const V t58 = c[7] * t24;
        const V t59 = t57 - t58;
        const V t60 = c[8] * t26;
        const V t61 = t59 + t60;
        const V t62 = c[6] * t28;
        const V t63 = t61 - t62;
        const V t64 = c[4] * t30;
        const V t65 = t63 + t64;
        const V t66 = c[10] * t23;
        const V t67 = c[12] * t25;
        const V t68 = c[13] * t27;
        const V t69 = c[11] * t29;
        const V t70 = c[9] * t31;
        const V t71 = t66 + t67;
        const V t72 = t71 + t68;
        const V t73 = t72 + t69;
        const V t74 = t73 + t70;
        const V t75 = c[6] * t22;
        const V t76 = t0 - t75;
        const V t77 = c[8] * t24;
        const V t78 = t76 + t77;
        const V t79 = c[5] * t26;
        const V t80 = t78 - t79;
        const V t81 = c[4] * t28;
        const V t82 = t80 + t81;
        const V t83 = c[7] * t30;
        const V t84 = t82 - t83;
        const V t85 = c[11] * t23;
        const V t86 = c[13] * t25;
        const V t87 = c[10] * t27;
        const V t88 = c[9] * t29;
        const V t89 = c[12] * t31;
        const V t90 = t85 + t86;
        const V t91 = t90 + t87;
        const V t92 = t91 - t88;
        const V t93 = t92 - t89;
        const V t94 = c[7] * t22;
        const V t95 = t0 - t94;
        const V t96 = c[6] * t24;
        const V t97 = t95 - t96;
        const V t98 = c[4] * t26;
        const V t99 = t97 + t98;
        const V t100 = c[8] * t28;
        const V t101 = t99 + t100;
        const V t102 = c[5] * t30;
        const V t103 = t101 - t102;
        const V t104 = c[12] * t23;
        const V t105 = c[11] * t25;
        const V t106 = c[9] * t27;
        const V t107 = c[13] * t29;
        const V t108 = c[10] * t31;
        const V t109 = t104 + t105;
        const V t110 = t109 + t107;
        const V t111 = t110 - t106;
        const V t112 = t111 - t108;
        const V t113 = c[8] * t22;
        const V t114 = c[4] * t24;
        const V t115 = t113 + t114;
        const V t116 = c[7] * t26;
        const V t117 = t115 - t116;
        const V t118 = c[5] * t28;
        const V t119 = t117 - t118;
        const V t120 = c[6] * t30;
        const V t121 = t119 - t120;
        const V t122 = t121 + t0;
        const V t123 = c[13] * t23;
        const V t124 = c[9] * t25;
        const V t125 = c[12] * t27;
        const V t126 = c[10] * t29;
        const V t127 = c[11] * t31;
        const V t128 = t123 + t125;
        const V t129 = t128 + t126;
        const V t130 = t129 - t124;
        const V t131 = t130 - t127;
        // real block of 11, multiplier 2
        const V t132 = t3 + t21;
        const V t133 = t3 - t21;
        const V t134 = t19 + t5;
        const V t135 = t19 - t5;
        const V t136 = t7 + t17;
        const V t137 = t7 - t17;
        const V t138 = t9 + t15;
        const V t139 = t9 - t15;
        const V t140 = t13 + t11;
        const V t141 = t13 - t11;
        const V t142 = t132 + t134;
        const V t143 = t142 + t136;
        const V t144 = t143 + t138;
        const V t145 = t144 + t140;
        const V t146 = t145 + t1;
        const V t147 = c[4] * t132;
        const V t148 = c[5] * t134;
        const V t149 = t147 - t148;
        const V t150 = c[6] * t136;
        const V t151 = t149 - t150;
        const V t152 = c[7] * t138;
        const V t153 = t151 - t152;
        const V t154 = c[8] * t140;
        const V t155 = t153 + t154;
        const V t156 = t155 + t1;
        const V t157 = c[9] * t133;
        const V t158 = c[10] * t135;
        const V t159 = c[11] * t137;
        const V t160 = c[12] * t139;
        const V t161 = c[13] * t141;
        const V t162 = t158 + t159;
        const V t163 = t162 + t160;
        const V t164 = t163 - t157;
        const V t165 = t164 - t161;
        const V t166 = c[5] * t132;
        const V t167 = t1 - t166;
        const V t168 = c[7] * t134;
        const V t169 = t167 - t168;
        const V t170 = c[8] * t136;
        const V t171 = t169 + t170;
        const V t172 = c[6] * t138;
        const V t173 = t171 - t172;
        const V t174 = c[4] * t140;
        const V t175 = t173 + t174;
        const V t176 = c[10] * t133;
        const V t177 = c[12] * t135;
        const V t178 = c[13] * t137;
        const V t179 = c[11] * t139;
        const V t180 = c[9] * t141;
        const V t181 = t176 + t177;
        const V t182 = t181 + t178;
        const V t183 = t182 + t179;
        const V t184 = t183 + t180;
        const V t185 = c[6] * t132;
        const V t186 = t1 - t185;
        const V t187 = c[8] * t134;
        const V t188 = t186 + t187;
        const V t189 = c[5] * t136;
        const V t190 = t188 - t189;
        const V t191 = c[4] * t138;
        const V t192 = t190 + t191;
        const V t193 = c[7] * t140;
        const V t194 = t192 - t193;
        const V t195 = c[11] * t133;
        const V t196 = c[13] * t135;
        const V t197 = c[10] * t137;
        const V t198 = c[9] * t139;
        const V t199 = c[12] * t141;
        const V t200 = t195 + t196;
        const V t201 = t200 + t197;
        const V t202 = t201 - t198;
        const V t203 = t202 - t199;
        const V t204 = c[7] * t132;
        const V t205 = t1 - t204;
        const V t206 = c[6] * t134;
        const V t207 = t205 - t206;
        const V t208 = c[4] * t136;
        const V t209 = t207 + t208;
        const V t210 = c[8] * t138;
        const V t211 = t209 + t210;
        const V t212 = c[5] * t140;
        const V t213 = t211 - t212;
        const V t214 = c[12] * t133;
        const V t215 = c[11] * t135;
        const V t216 = c[9] * t137;
        const V t217 = c[13] * t139;
        const V t218 = c[10] * t141;
        const V t219 = t214 + t215;
        const V t220 = t219 + t217;
        const V t221 = t220 - t216;
        const V t222 = t221 - t218;
        const V t223 = c[8] * t132;
        const V t224 = c[4] * t134;
        const V t225 = t223 + t224;
        const V t226 = c[7] * t136;
        const V t227 = t225 - t226;
        const V t228 = c[5] * t138;
        const V t229 = t227 - t228;
        const V t230 = c[6] * t140;
        const V t231 = t229 - t230;
        const V t232 = t231 + t1;
        const V t233 = c[13] * t133;
        const V t234 = c[9] * t135;
        const V t235 = c[12] * t137;
        const V t236 = c[10] * t139;
        const V t237 = c[11] * t141;
        const V t238 = t233 + t235;
        const V t239 = t238 + t236;
        const V t240 = t239 - t234;
        const V t241 = t240 - t237;
        // real block of 23
        const V x0 = io.in(0);
        const V t242 = x0 + t36;
        io.re(0, t242);
        const V t243 = c[44] * t36;
        const V t244 = x0 - t243;
        const V t245 = c[22] * t241;
        const V t246 = c[23] * t232;
        const V t247 = t246 - t245;
        const V t248 = c[22] * t232;
        const V t249 = c[23] * t241;
        const V t250 = t249 + t248;
        const V t251 = c[24] * t55;
        const V t252 = c[25] * t46;
        const V t253 = t252 - t251;
        const V t254 = c[24] * t46;
        const V t255 = c[25] * t55;
        const V t256 = t255 + t254;
        const V t257 = c[26] * t222;
        const V t258 = c[27] * t213;
        const V t259 = t258 + t257;
        const V t260 = c[26] * t213;
        const V t261 = c[27] * t222;
        const V t262 = t260 - t261;
        const V t263 = c[28] * t74;
        const V t264 = c[29] * t65;
        const V t265 = t264 + t263;
        const V t266 = c[28] * t65;
        const V t267 = c[29] * t74;
        const V t268 = t266 - t267;
        const V t269 = c[30] * t203;
        const V t270 = c[31] * t194;
        const V t271 = t270 + t269;
        const V t272 = c[30] * t194;
        const V t273 = c[31] * t203;
        const V t274 = t272 - t273;
        const V t275 = c[32] * t93;
        const V t276 = c[33] * t84;
        const V t277 = t276 - t275;
        const V t278 = c[32] * t84;
        const V t279 = c[33] * t93;
        const V t280 = t279 + t278;
        const V t281 = c[34] * t184;
        const V t282 = c[35] * t175;
        const V t283 = t282 + t281;
        const V t284 = c[34] * t175;
        const V t285 = c[35] * t184;
        const V t286 = t285 - t284;
        const V t287 = c[36] * t112;
        const V t288 = c[37] * t103;
        const V t289 = t287 - t288;
        const V t290 = c[36] * t103;
        const V t291 = c[37] * t112;
        const V t292 = t291 + t290;
        const V t293 = c[38] * t165;
        const V t294 = c[39] * t156;
        const V t295 = t293 - t294;
        const V t296 = c[38] * t156;
        const V t297 = c[39] * t165;
        const V t298 = t297 + t296;
        const V t299 = c[40] * t131;
        const V t300 = c[41] * t122;
        const V t301 = t300 + t299;
        const V t302 = c[40] * t122;
        const V t303 = c[41] * t131;
        const V t304 = t303 - t302;
        const V t305 = c[45] * t146;
        // real block of 5
        const V t306 = t265 + t301;
        const V t307 = t265 - t301;
        const V t308 = t277 + t289;
        const V t309 = t277 - t289;
        const V t310 = t306 + t308;
        const V t311 = t310 + t253;
        const V t312 = c[0] * t306;
        const V t313 = c[1] * t308;
        const V t314 = t312 - t313;
        const V t315 = t314 + t253;
        const V t316 = c[2] * t307;
        const V t317 = c[3] * t309;
        const V t318 = t317 - t316;
        const V t319 = c[1] * t306;
        const V t320 = t253 - t319;
        const V t321 = c[0] * t308;
        const V t322 = t320 + t321;
        const V t323 = c[3] * t307;
        const V t324 = c[2] * t309;
        const V t325 = t323 + t324;
        // real block of 5
        const V t326 = t304 - t268;
        const V t327 = t268 + t304;
        const V t328 = t280 - t292;
        const V t329 = t280 + t292;
        const V t330 = t326 + t328;
        const V t331 = t330 + t256;
        const V t332 = c[0] * t326;
        const V t333 = c[1] * t328;
        const V t334 = t332 - t333;
        const V t335 = t334 + t256;
        const V t336 = c[2] * t327;
        const V t337 = c[3] * t329;
        const V t338 = t336 + t337;
        const V t339 = c[1] * t326;
        const V t340 = t256 - t339;
        const V t341 = c[0] * t328;
        const V t342 = t340 + t341;
        const V t343 = c[3] * t327;
        const V t344 = c[2] * t329;
        const V t345 = t343 - t344;
        // spectrum block of 11
        const V t346 = c[42] * t311;
        const V t347 = t244 - t346;
        const V t348 = c[14] * t345;
        const V t349 = c[15] * t342;
        const V t350 = t349 + t348;
        const V t351 = c[14] * t342;
        const V t352 = c[15] * t345;
        const V t353 = t352 - t351;
        const V t354 = c[16] * t318;
        const V t355 = c[17] * t315;
        const V t356 = t355 - t354;
        const V t357 = c[16] * t315;
        const V t358 = c[17] * t318;
        const V t359 = t358 + t357;
        const V t360 = c[18] * t338;
        const V t361 = c[19] * t335;
        const V t362 = t361 - t360;
        const V t363 = c[18] * t335;
        const V t364 = c[19] * t338;
        const V t365 = t364 + t363;
        const V t366 = c[20] * t325;
        const V t367 = c[21] * t322;
        const V t368 = t367 + t366;
        const V t369 = c[20] * t322;
        const V t370 = c[21] * t325;
        const V t371 = t369 - t370;
        const V t372 = c[43] * t331;
        // spectrum block of 2
        const V t373 = t347 - t372;
        const V t374 = t347 + t372;
        // complex block of 2
        const V t375 = t359 + t365;
        const V t376 = t356 + t362;
        const V t377 = t359 - t365;
        const V t378 = t356 - t362;
        // complex block of 2
        const V t379 = t371 - t353;
        const V t380 = t368 - t350;
        const V t381 = t371 + t353;
        const V t382 = t368 + t350;
        // spectrum block of 5, multiplier 2
        const V t383 = t376 + t380;
        const V t384 = t383 + t373;
        io.re(9, t384);
        const V t385 = c[0] * t376;
        const V t386 = c[1] * t380;
        const V t387 = t385 - t386;
        const V t388 = t387 + t373;
        const V t389 = c[2] * t375;
        const V t390 = c[3] * t379;
        const V t391 = t389 + t390;
        const V t392 = t388 - t391;
        io.re(8, t392);
        const V t393 = t388 + t391;
        io.re(2, t393);
        const V t394 = c[1] * t376;
        const V t395 = t373 - t394;
        const V t396 = c[0] * t380;
        const V t397 = t395 + t396;
        const V t398 = c[3] * t375;
        const V t399 = c[2] * t379;
        const V t400 = t398 - t399;
        const V t401 = t397 - t400;
        io.re(7, t401);
        const V t402 = t397 + t400;
        io.re(6, t402);
        // spectrum block of 5, multiplier 2
        const V t403 = t378 + t382;
        const V t404 = t403 + t374;
        io.re(5, t404);
        const V t405 = c[0] * t378;
        const V t406 = c[1] * t382;
        const V t407 = t405 - t406;
        const V t408 = t407 + t374;
        const V t409 = c[2] * t377;
        const V t410 = c[3] * t381;
        const V t411 = t409 + t410;
        const V t412 = t408 - t411;
        io.re(3, t412);
        const V t413 = t408 + t411;
        io.re(11, t413);
        const V t414 = c[1] * t378;
        const V t415 = t374 - t414;
        const V t416 = c[0] * t382;
        const V t417 = t415 + t416;
        const V t418 = c[3] * t377;
        const V t419 = c[2] * t381;
        const V t420 = t418 - t419;
        const V t421 = t417 - t420;
        io.re(10, t421);
        const V t422 = t417 + t420;
        io.re(4, t422);
        // spectrum block of 11
        const V t423 = t244 + t311;
        io.re(1, t423);
        // real block of 5
        const V t424 = t286 - t250;
        const V t425 = t286 + t250;
        const V t426 = t274 + t262;
        const V t427 = t274 - t262;
        const V t428 = t424 + t426;
        const V t429 = t428 + t298;
        const V t430 = c[0] * t424;
        const V t431 = c[1] * t426;
        const V t432 = t430 - t431;
        const V t433 = t432 + t298;
        const V t434 = c[2] * t425;
        const V t435 = c[3] * t427;
        const V t436 = t435 - t434;
        const V t437 = c[1] * t424;
        const V t438 = t298 - t437;
        const V t439 = c[0] * t426;
        const V t440 = t438 + t439;
        const V t441 = c[3] * t425;
        const V t442 = c[2] * t427;
        const V t443 = t441 + t442;
        // real block of 5
        const V t444 = t247 - t283;
        const V t445 = t283 + t247;
        const V t446 = t271 + t259;
        const V t447 = t271 - t259;
        const V t448 = t444 + t446;
        const V t449 = t448 + t295;
        const V t450 = c[0] * t444;
        const V t451 = c[1] * t446;
        const V t452 = t450 - t451;
        const V t453 = t452 + t295;
        const V t454 = c[2] * t445;
        const V t455 = c[3] * t447;
        const V t456 = t454 + t455;
        const V t457 = c[1] * t444;
        const V t458 = t295 - t457;
        const V t459 = c[0] * t446;
        const V t460 = t458 + t459;
        const V t461 = c[3] * t445;
        const V t462 = c[2] * t447;
        const V t463 = t461 - t462;
        // spectrum block of 11
        const V t464 = c[42] * t429;
        const V t465 = t305 + t464;
        const V t466 = c[14] * t463;
        const V t467 = c[15] * t460;
        const V t468 = t467 + t466;
        const V t469 = c[14] * t460;
        const V t470 = c[15] * t463;
        const V t471 = t470 - t469;
        const V t472 = c[16] * t436;
        const V t473 = c[17] * t433;
        const V t474 = t473 - t472;
        const V t475 = c[16] * t433;
        const V t476 = c[17] * t436;
        const V t477 = t476 + t475;
        const V t478 = c[18] * t456;
        const V t479 = c[19] * t453;
        const V t480 = t479 - t478;
        const V t481 = c[18] * t453;
        const V t482 = c[19] * t456;
        const V t483 = t482 + t481;
        const V t484 = c[20] * t443;
        const V t485 = c[21] * t440;
        const V t486 = t485 + t484;
        const V t487 = c[20] * t440;
        const V t488 = c[21] * t443;
        const V t489 = t487 - t488;
        const V t490 = c[43] * t449;
        // spectrum block of 2
        const V t491 = t465 + t490;
        const V t492 = t490 - t465;
        // complex block of 2
        const V t493 = t477 + t483;
        const V t494 = t474 + t480;
        const V t495 = t477 - t483;
        const V t496 = t474 - t480;
        // complex block of 2
        const V t497 = t489 - t471;
        const V t498 = t486 - t468;
        const V t499 = t489 + t471;
        const V t500 = t486 + t468;
        // spectrum block of 5, multiplier 2
        const V t501 = t494 + t498;
        const V t502 = t501 - t491;
        io.im(9, t502);
        const V t503 = c[0] * t494;
        const V t504 = c[1] * t498;
        const V t505 = t503 - t504;
        const V t506 = t505 - t491;
        const V t507 = c[2] * t493;
        const V t508 = c[3] * t497;
        const V t509 = t507 + t508;
        const V t510 = t506 - t509;
        io.im(8, t510);
        const V t511 = t506 + t509;
        io.im(2, t511);
        const V t512 = c[1] * t494;
        const V t513 = t491 + t512;
        const V t514 = c[0] * t498;
        const V t515 = t514 - t513;
        const V t516 = c[3] * t493;
        const V t517 = c[2] * t497;
        const V t518 = t516 - t517;
        const V t519 = t515 - t518;
        io.minusIm(7, t519);
        const V t520 = t515 + t518;
        io.im(6, t520);
        // spectrum block of 5, multiplier 2
        const V t521 = t496 + t500;
        const V t522 = t521 + t492;
        io.minusIm(5, t522);
        const V t523 = c[0] * t496;
        const V t524 = c[1] * t500;
        const V t525 = t523 - t524;
        const V t526 = t525 + t492;
        const V t527 = c[2] * t495;
        const V t528 = c[3] * t499;
        const V t529 = t527 + t528;
        const V t530 = t526 - t529;
        io.im(3, t530);
        const V t531 = t526 + t529;
        io.minusIm(11, t531);
        const V t532 = c[1] * t496;
        const V t533 = t492 - t532;
        const V t534 = c[0] * t500;
        const V t535 = t533 + t534;
        const V t536 = c[3] * t495;
        const V t537 = c[2] * t499;
        const V t538 = t536 - t537;
        const V t539 = t535 - t538;
        io.minusIm(10, t539);
        const V t540 = t535 + t538;
        io.im(4, t540);
        // spectrum block of 11
        const V t541 = t429 - t305;
        io.im(1, t541);
    }
};

}  // namespace zulg
