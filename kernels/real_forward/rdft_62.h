// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 62.
// Forward DFT of 62 real points, prime-factor 31, 2.
// 363 additions, 331 subtractions, 384 multiplications (446 with `scale`); 21 outputs negated; 40 constants; 69 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<62> {
    static constexpr int steps = 1140;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.3386491040641593,  // c[6]: -Q[1] of 31
        0.15196895108646355,  // c[7]: -P[1] of 31
        0.21884316352804659,  // c[8]: Q[2] of 31
        0.29980901846811486,  // c[9]: -P[2] of 31
        0.019498333867134416,  // c[10]: -Q[3] of 31
        0.37067181273221134,  // c[11]: -P[3] of 31
        0.05839901633481273,  // c[12]: Q[4] of 31
        0.3665614991633792,  // c[13]: P[4] of 31
        0.2226025627892778,  // c[14]: Q[6] of 31
        0.2970284107916672,  // c[15]: P[6] of 31
        0.28075102554360776,  // c[16]: -Q[7] of 31
        0.24280988331200667,  // c[17]: -P[7] of 31
        0.1073724670043011,  // c[18]: -Q[8] of 31
        0.35531525594489755,  // c[19]: P[8] of 31
        0.008505491359144196,  // c[20]: -Q[9] of 31
        0.37108682864596165,  // c[21]: P[9] of 31
        0.36539376648991023,  // c[22]: Q[11] of 31
        0.06530829340975558,  // c[23]: P[11] of 31
        0.10130252550848418,  // c[24]: Q[12] of 31
        0.35709323166839874,  // c[25]: -P[12] of 31
        0.3312534027537607,  // c[26]: Q[13] of 31
        0.1674782402040115,  // c[27]: -P[13] of 31
        0.27566627690567064,  // c[28]: Q[14] of 31
        0.2485676599132395,  // c[29]: P[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.2580069240952765,  // c[31]: -Q[5] of 31
        0.26685240283098827,  // c[32]: P[5] of 31
        0.1449304326594425,  // c[33]: Q[10] of 31
        0.3417205692768941,  // c[34]: P[10] of 31
        0.1855921454276674,  // c[35]: -beta of 31
        0.1255134364645471,  // c[36]: sin 2 pi 1/3 times Q[10] of 31
        0.2959386939894704,  // c[37]: sin 2 pi 1/3 times P[10] of 31
        0.23110095991255428,  // c[38]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[39]: sin 2 pi 1/3 times -Q[5] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3
        const V x50 = io.in(50);
        const V x10 = io.in(10);
        const V t0 = x50 + x10;
        const V t1 = x50 - x10;
        const V x2 = io.in(2);
        const V t2 = t0 + x2;
        const V t3 = c[4] * t0;
        const V t4 = x2 - t3;
        const V t5 = c[5] * t1;
        // real block of 3
        const V x48 = io.in(48);
        const V x22 = io.in(22);
        const V t6 = x48 + x22;
        const V t7 = x48 - x22;
        const V x54 = io.in(54);
        const V t8 = t6 + x54;
        const V t9 = c[4] * t6;
        const V t10 = x54 - t9;
        const V t11 = c[5] * t7;
        // real block of 3
        const V x56 = io.in(56);
        const V x36 = io.in(36);
        const V t12 = x56 + x36;
        const V t13 = x56 - x36;
        const V x32 = io.in(32);
        const V t14 = t12 + x32;
        const V t15 = c[4] * t12;
        const V t16 = x32 - t15;
        const V t17 = c[5] * t13;
        // real block of 3
        const V x24 = io.in(24);
        const V x42 = io.in(42);
        const V t18 = x24 + x42;
        const V t19 = x24 - x42;
        const V x58 = io.in(58);
        const V t20 = t18 + x58;
        const V t21 = c[4] * t18;
        const V t22 = x58 - t21;
        const V t23 = c[5] * t19;
        // real block of 3
        const V x28 = io.in(28);
        const V x18 = io.in(18);
        const V t24 = x28 + x18;
        const V t25 = x28 - x18;
        const V x16 = io.in(16);
        const V t26 = t24 + x16;
        const V t27 = c[4] * t24;
        const V t28 = x16 - t27;
        const V t29 = c[5] * t25;
        // real block of 3
        const V x12 = io.in(12);
        const V x52 = io.in(52);
        const V t30 = x12 + x52;
        const V t31 = x12 - x52;
        const V x60 = io.in(60);
        const V t32 = t30 + x60;
        const V t33 = c[4] * t30;
        const V t34 = x60 - t33;
        const V t35 = c[5] * t31;
        // real block of 3
        const V x14 = io.in(14);
        const V x40 = io.in(40);
        const V t36 = x14 + x40;
        const V t37 = x14 - x40;
        const V x8 = io.in(8);
        const V t38 = t36 + x8;
        const V t39 = c[4] * t36;
        const V t40 = x8 - t39;
        const V t41 = c[5] * t37;
        // real block of 3
        const V x6 = io.in(6);
        const V x26 = io.in(26);
        const V t42 = x6 + x26;
        const V t43 = x6 - x26;
        const V x30 = io.in(30);
        const V t44 = t42 + x30;
        const V t45 = c[4] * t42;
        const V t46 = x30 - t45;
        const V t47 = c[5] * t43;
        // real block of 3
        const V x38 = io.in(38);
        const V x20 = io.in(20);
        const V t48 = x38 + x20;
        const V t49 = x38 - x20;
        const V x4 = io.in(4);
        const V t50 = t48 + x4;
        const V t51 = c[4] * t48;
        const V t52 = x4 - t51;
        const V t53 = c[5] * t49;
        // real block of 3
        const V x34 = io.in(34);
        const V x44 = io.in(44);
        const V t54 = x34 + x44;
        const V t55 = x34 - x44;
        const V x46 = io.in(46);
        const V t56 = t54 + x46;
        const V t57 = c[4] * t54;
        const V t58 = x46 - t57;
        const V t59 = c[5] * t55;
        // real block of 2
        const V t60 = t2 + t32;
        const V t61 = t2 - t32;
        // real block of 2
        const V t62 = t14 + t44;
        const V t63 = t14 - t44;
        // real block of 2
        const V t64 = t26 + t56;
        const V t65 = t26 - t56;
        // real block of 2
        const V t66 = t38 + t8;
        const V t67 = t38 - t8;
        // real block of 2
        const V t68 = t50 + t20;
        const V t69 = t50 - t20;
        // real block of 5
        const V t70 = t62 + t68;
        const V t71 = t62 - t68;
        const V t72 = t66 + t64;
        const V t73 = t66 - t64;
        const V t74 = t70 + t72;
        const V t75 = t74 + t60;
        const V t76 = c[0] * t70;
        const V t77 = c[1] * t72;
        const V t78 = t76 - t77;
        const V t79 = t78 + t60;
        const V t80 = c[2] * t71;
        const V t81 = c[3] * t73;
        const V t82 = t81 - t80;
        const V t83 = c[1] * t70;
        const V t84 = t60 - t83;
        const V t85 = c[0] * t72;
        const V t86 = t84 + t85;
        const V t87 = c[3] * t71;
        const V t88 = c[2] * t73;
        const V t89 = t87 + t88;
        // real block of 5
        const V t90 = t63 + t69;
        const V t91 = t63 - t69;
        const V t92 = t67 + t65;
        const V t93 = t67 - t65;
        const V t94 = t90 + t92;
        const V t95 = t94 + t61;
        const V t96 = c[0] * t90;
        const V t97 = c[1] * t92;
        const V t98 = t96 - t97;
        const V t99 = t98 + t61;
        const V t100 = c[2] * t91;
        const V t101 = c[3] * t93;
        const V t102 = t101 - t100;
        const V t103 = c[1] * t90;
        const V t104 = t61 - t103;
        const V t105 = c[0] * t92;
        const V t106 = t104 + t105;
        const V t107 = c[3] * t91;
        const V t108 = c[2] * t93;
        const V t109 = t107 + t108;
        // complex block of 2
        const V t110 = t4 + t34;
        const V t111 = t5 + t35;
        const V t112 = t4 - t34;
        const V t113 = t35 - t5;
        // complex block of 2
        const V t114 = t16 + t46;
        const V t115 = t17 + t47;
        const V t116 = t16 - t46;
        const V t117 = t47 - t17;
        // complex block of 2
        const V t118 = t28 + t58;
        const V t119 = t29 + t59;
        const V t120 = t28 - t58;
        const V t121 = t59 - t29;
        // complex block of 2
        const V t122 = t40 + t10;
        const V t123 = t41 + t11;
        const V t124 = t40 - t10;
        const V t125 = t11 - t41;
        // complex block of 2
        const V t126 = t52 + t22;
        const V t127 = t53 + t23;
        const V t128 = t52 - t22;
        const V t129 = t23 - t53;
        // complex block of 5
        const V t130 = t114 + t126;
        const V t131 = t115 + t127;
        const V t132 = t114 - t126;
        const V t133 = t127 - t115;
        const V t134 = t122 + t118;
        const V t135 = t123 + t119;
        const V t136 = t122 - t118;
        const V t137 = t119 - t123;
        const V t138 = t130 + t134;
        const V t139 = t131 + t135;
        const V t140 = t138 + t110;
        const V t141 = t139 + t111;
        const V t142 = c[0] * t130;
        const V t143 = c[1] * t134;
        const V t144 = t142 - t143;
        const V t145 = t144 + t110;
        const V t146 = c[0] * t131;
        const V t147 = t111 + t146;
        const V t148 = c[1] * t135;
        const V t149 = t148 - t147;
        const V t150 = c[2] * t132;
        const V t151 = c[3] * t136;
        const V t152 = t150 - t151;
        const V t153 = c[2] * t133;
        const V t154 = c[3] * t137;
        const V t155 = t153 - t154;
        const V t156 = t145 + t155;
        const V t157 = t149 - t152;
        const V t158 = t145 - t155;
        const V t159 = t149 + t152;
        const V t160 = c[1] * t130;
        const V t161 = t110 - t160;
        const V t162 = c[0] * t134;
        const V t163 = t161 + t162;
        const V t164 = c[1] * t131;
        const V t165 = c[0] * t135;
        const V t166 = t164 - t165;
        const V t167 = t166 - t111;
        const V t168 = c[3] * t132;
        const V t169 = c[2] * t136;
        const V t170 = t168 + t169;
        const V t171 = c[3] * t133;
        const V t172 = c[2] * t137;
        const V t173 = t171 + t172;
        const V t174 = t163 + t173;
        const V t175 = t167 - t170;
        const V t176 = t163 - t173;
        const V t177 = t167 + t170;
        // complex block of 5
        const V t178 = t116 + t128;
        const V t179 = t117 + t129;
        const V t180 = t116 - t128;
        const V t181 = t117 - t129;
        const V t182 = t124 + t120;
        const V t183 = t125 + t121;
        const V t184 = t124 - t120;
        const V t185 = t125 - t121;
        const V t186 = t178 + t182;
        const V t187 = t179 + t183;
        const V t188 = t186 + t112;
        const V t189 = t187 + t113;
        const V t190 = c[0] * t178;
        const V t191 = c[1] * t182;
        const V t192 = t190 - t191;
        const V t193 = t192 + t112;
        const V t194 = c[0] * t179;
        const V t195 = c[1] * t183;
        const V t196 = t194 - t195;
        const V t197 = t196 + t113;
        const V t198 = c[2] * t180;
        const V t199 = c[3] * t184;
        const V t200 = t198 - t199;
        const V t201 = c[2] * t181;
        const V t202 = c[3] * t185;
        const V t203 = t201 - t202;
        const V t204 = t193 + t203;
        const V t205 = t197 - t200;
        const V t206 = t193 - t203;
        const V t207 = t197 + t200;
        const V t208 = c[1] * t178;
        const V t209 = t112 - t208;
        const V t210 = c[0] * t182;
        const V t211 = t209 + t210;
        const V t212 = c[1] * t179;
        const V t213 = t113 - t212;
        const V t214 = c[0] * t183;
        const V t215 = t213 + t214;
        const V t216 = c[3] * t180;
        const V t217 = c[2] * t184;
        const V t218 = t216 + t217;
        const V t219 = c[3] * t181;
        const V t220 = c[2] * t185;
        const V t221 = t219 + t220;
        const V t222 = t211 + t221;
        const V t223 = t215 - t218;
        const V t224 = t211 - t221;
        const V t225 = t215 + t218;
        // real block of 31, multiplier 2
        const V x0 = io.in(0);
        const V t226 = x0 + t75;
        const V t227 = c[30] * t75;
        const V t228 = x0 - t227;
        const V t229 = c[6] * t205;
        const V t230 = c[7] * t204;
        const V t231 = t229 - t230;
        const V t232 = c[6] * t204;
        const V t233 = c[7] * t205;
        const V t234 = t233 + t232;
        const V t235 = c[8] * t177;
        const V t236 = c[9] * t176;
        const V t237 = t235 - t236;
        const V t238 = c[8] * t176;
        const V t239 = c[9] * t177;
        const V t240 = t239 + t238;
        const V t241 = c[10] * t109;
        const V t242 = c[11] * t106;
        const V t243 = t241 - t242;
        const V t244 = c[10] * t106;
        const V t245 = c[11] * t109;
        const V t246 = t245 + t244;
        const V t247 = c[12] * t159;
        const V t248 = c[13] * t158;
        const V t249 = t248 - t247;
        const V t250 = c[12] * t158;
        const V t251 = c[13] * t159;
        const V t252 = t251 + t250;
        const V t253 = c[31] * t188;
        const V t254 = c[32] * t189;
        const V t255 = t254 + t253;
        const V t256 = c[14] * t82;
        const V t257 = c[15] * t79;
        const V t258 = t257 - t256;
        const V t259 = c[14] * t79;
        const V t260 = c[15] * t82;
        const V t261 = t260 + t259;
        const V t262 = c[16] * t223;
        const V t263 = c[17] * t222;
        const V t264 = t262 - t263;
        const V t265 = c[16] * t222;
        const V t266 = c[17] * t223;
        const V t267 = t266 + t265;
        const V t268 = c[18] * t175;
        const V t269 = c[19] * t174;
        const V t270 = t269 - t268;
        const V t271 = c[18] * t174;
        const V t272 = c[19] * t175;
        const V t273 = t272 + t271;
        const V t274 = c[20] * t102;
        const V t275 = c[21] * t99;
        const V t276 = t275 - t274;
        const V t277 = c[20] * t99;
        const V t278 = c[21] * t102;
        const V t279 = t278 + t277;
        const V t280 = c[33] * t141;
        const V t281 = c[34] * t140;
        const V t282 = t281 + t280;
        const V t283 = c[22] * t207;
        const V t284 = c[23] * t206;
        const V t285 = t284 + t283;
        const V t286 = c[22] * t206;
        const V t287 = c[23] * t207;
        const V t288 = t286 - t287;
        const V t289 = c[24] * t89;
        const V t290 = c[25] * t86;
        const V t291 = t289 - t290;
        const V t292 = c[24] * t86;
        const V t293 = c[25] * t89;
        const V t294 = t293 + t292;
        const V t295 = c[26] * t225;
        const V t296 = c[27] * t224;
        const V t297 = t296 + t295;
        const V t298 = c[26] * t224;
        const V t299 = c[27] * t225;
        const V t300 = t298 - t299;
        const V t301 = c[28] * t157;
        const V t302 = c[29] * t156;
        const V t303 = t302 + t301;
        const V t304 = c[28] * t156;
        const V t305 = c[29] * t157;
        const V t306 = t304 - t305;
        const V t307 = c[35] * t95;
        // spectrum block of 3, multiplier 2
        const V t308 = t282 + t228;
        const V t309 = c[4] * t282;
        const V t310 = t228 - t309;
        const V t311 = c[36] * t140;
        const V t312 = c[37] * t141;
        const V t313 = t311 - t312;
        const V t314 = t310 - t313;
        const V t315 = t310 + t313;
        // complex block of 3, multiplier 2
        const V t316 = t306 + t252;
        const V t317 = t303 + t249;
        const V t318 = t252 - t306;
        const V t319 = t303 - t249;
        const V t320 = t261 - t316;
        const V t321 = t317 + t258;
        const V t322 = c[4] * t316;
        const V t323 = t322 + t261;
        const V t324 = c[4] * t317;
        const V t325 = t258 - t324;
        const V t326 = c[5] * t318;
        const V t327 = c[5] * t319;
        const V t328 = t323 + t327;
        const V t329 = t325 - t326;
        const V t330 = t323 - t327;
        const V t331 = t325 + t326;
        // complex block of 3, multiplier 2
        const V t332 = t273 + t240;
        const V t333 = t270 + t237;
        const V t334 = t273 - t240;
        const V t335 = t270 - t237;
        const V t336 = t332 + t294;
        const V t337 = t333 + t291;
        const V t338 = c[4] * t332;
        const V t339 = t294 - t338;
        const V t340 = c[4] * t333;
        const V t341 = t291 - t340;
        const V t342 = c[5] * t334;
        const V t343 = c[5] * t335;
        const V t344 = t339 + t343;
        const V t345 = t341 - t342;
        const V t346 = t339 - t343;
        const V t347 = t341 + t342;
        // spectrum block of 5, multiplier 3
        const V t348 = t321 + t337;
        const V t349 = t348 + t308;
        const V t350 = c[0] * t321;
        const V t351 = c[1] * t337;
        const V t352 = t350 - t351;
        const V t353 = t352 + t308;
        const V t354 = c[2] * t320;
        const V t355 = c[3] * t336;
        const V t356 = t354 + t355;
        const V t357 = t353 - t356;
        const V t358 = t353 + t356;
        const V t359 = c[1] * t321;
        const V t360 = t308 - t359;
        const V t361 = c[0] * t337;
        const V t362 = t360 + t361;
        const V t363 = c[3] * t320;
        const V t364 = c[2] * t336;
        const V t365 = t363 - t364;
        const V t366 = t362 - t365;
        const V t367 = t362 + t365;
        // spectrum block of 5, multiplier 3
        const V t368 = t331 + t347;
        const V t369 = t368 + t315;
        const V t370 = c[0] * t331;
        const V t371 = c[1] * t347;
        const V t372 = t370 - t371;
        const V t373 = t372 + t315;
        const V t374 = c[2] * t330;
        const V t375 = c[3] * t346;
        const V t376 = t374 + t375;
        const V t377 = t373 - t376;
        const V t378 = t373 + t376;
        const V t379 = c[1] * t331;
        const V t380 = t315 - t379;
        const V t381 = c[0] * t347;
        const V t382 = t380 + t381;
        const V t383 = c[3] * t330;
        const V t384 = c[2] * t346;
        const V t385 = t383 - t384;
        const V t386 = t382 - t385;
        const V t387 = t382 + t385;
        // spectrum block of 5, multiplier 3
        const V t388 = t329 + t345;
        const V t389 = t388 + t314;
        const V t390 = c[0] * t329;
        const V t391 = c[1] * t345;
        const V t392 = t390 - t391;
        const V t393 = t392 + t314;
        const V t394 = c[2] * t328;
        const V t395 = c[3] * t344;
        const V t396 = t394 + t395;
        const V t397 = t393 - t396;
        const V t398 = t393 + t396;
        const V t399 = c[1] * t329;
        const V t400 = t314 - t399;
        const V t401 = c[0] * t345;
        const V t402 = t400 + t401;
        const V t403 = c[3] * t328;
        const V t404 = c[2] * t344;
        const V t405 = t403 - t404;
        const V t406 = t402 - t405;
        const V t407 = t402 + t405;
        // spectrum block of 3
        const V t408 = t255 + t307;
        const V t409 = c[4] * t255;
        const V t410 = t409 - t307;
        const V t411 = c[38] * t188;
        const V t412 = c[39] * t189;
        const V t413 = t411 - t412;
        const V t414 = t410 - t413;
        const V t415 = t410 + t413;
        // complex block of 3
        const V t416 = t231 + t285;
        const V t417 = t288 - t234;
        const V t418 = t285 - t231;
        const V t419 = t234 + t288;
        const V t420 = t276 - t416;
        const V t421 = t417 - t279;
        const V t422 = c[4] * t416;
        const V t423 = t422 + t276;
        const V t424 = c[4] * t417;
        const V t425 = t279 + t424;
        const V t426 = c[5] * t418;
        const V t427 = c[5] * t419;
        const V t428 = t423 - t427;
        const V t429 = t425 + t426;
        const V t430 = t423 + t427;
        const V t431 = t426 - t425;
        // complex block of 3
        const V t432 = t264 + t297;
        const V t433 = t300 - t267;
        const V t434 = t297 - t264;
        const V t435 = t267 + t300;
        const V t436 = t243 - t432;
        const V t437 = t433 - t246;
        const V t438 = c[4] * t432;
        const V t439 = t438 + t243;
        const V t440 = c[4] * t433;
        const V t441 = t246 + t440;
        const V t442 = c[5] * t434;
        const V t443 = c[5] * t435;
        const V t444 = t439 - t443;
        const V t445 = t441 + t442;
        const V t446 = t439 + t443;
        const V t447 = t442 - t441;
        // spectrum block of 5
        const V t448 = t421 + t437;
        const V t449 = t448 - t408;
        const V t450 = c[0] * t421;
        const V t451 = c[1] * t437;
        const V t452 = t450 - t451;
        const V t453 = t452 - t408;
        const V t454 = c[2] * t420;
        const V t455 = c[3] * t436;
        const V t456 = t454 + t455;
        const V t457 = t453 - t456;
        const V t458 = t453 + t456;
        const V t459 = c[1] * t421;
        const V t460 = t408 + t459;
        const V t461 = c[0] * t437;
        const V t462 = t461 - t460;
        const V t463 = c[3] * t420;
        const V t464 = c[2] * t436;
        const V t465 = t463 - t464;
        const V t466 = t462 - t465;
        const V t467 = t462 + t465;
        // spectrum block of 5
        const V t468 = t429 + t445;
        const V t469 = t414 - t468;
        const V t470 = c[0] * t429;
        const V t471 = t414 - t470;
        const V t472 = c[1] * t445;
        const V t473 = t471 + t472;
        const V t474 = c[2] * t428;
        const V t475 = c[3] * t444;
        const V t476 = t474 + t475;
        const V t477 = t473 - t476;
        const V t478 = t473 + t476;
        const V t479 = c[1] * t429;
        const V t480 = c[0] * t445;
        const V t481 = t479 - t480;
        const V t482 = t481 + t414;
        const V t483 = c[3] * t428;
        const V t484 = c[2] * t444;
        const V t485 = t483 - t484;
        const V t486 = t482 - t485;
        const V t487 = t482 + t485;
        // spectrum block of 5
        const V t488 = t431 + t447;
        const V t489 = t488 + t415;
        const V t490 = c[0] * t431;
        const V t491 = c[1] * t447;
        const V t492 = t490 - t491;
        const V t493 = t492 + t415;
        const V t494 = c[2] * t430;
        const V t495 = c[3] * t446;
        const V t496 = t494 + t495;
        const V t497 = t493 - t496;
        const V t498 = t493 + t496;
        const V t499 = c[1] * t431;
        const V t500 = t415 - t499;
        const V t501 = c[0] * t447;
        const V t502 = t500 + t501;
        const V t503 = c[3] * t430;
        const V t504 = c[2] * t446;
        const V t505 = t503 - t504;
        const V t506 = t502 - t505;
        const V t507 = t502 + t505;
        // real block of 3
        const V x19 = io.in(19);
        const V x41 = io.in(41);
        const V t508 = x19 + x41;
        const V t509 = x19 - x41;
        const V x33 = io.in(33);
        const V t510 = t508 + x33;
        const V t511 = c[4] * t508;
        const V t512 = x33 - t511;
        const V t513 = c[5] * t509;
        // real block of 3
        const V x17 = io.in(17);
        const V x53 = io.in(53);
        const V t514 = x17 + x53;
        const V t515 = x17 - x53;
        const V x23 = io.in(23);
        const V t516 = t514 + x23;
        const V t517 = c[4] * t514;
        const V t518 = x23 - t517;
        const V t519 = c[5] * t515;
        // real block of 3
        const V x25 = io.in(25);
        const V x5 = io.in(5);
        const V t520 = x25 + x5;
        const V t521 = x25 - x5;
        const V x1 = io.in(1);
        const V t522 = t520 + x1;
        const V t523 = c[4] * t520;
        const V t524 = x1 - t523;
        const V t525 = c[5] * t521;
        // real block of 3
        const V x55 = io.in(55);
        const V x11 = io.in(11);
        const V t526 = x55 + x11;
        const V t527 = x55 - x11;
        const V x27 = io.in(27);
        const V t528 = t526 + x27;
        const V t529 = c[4] * t526;
        const V t530 = x27 - t529;
        const V t531 = c[5] * t527;
        // real block of 3
        const V x59 = io.in(59);
        const V x49 = io.in(49);
        const V t532 = x59 + x49;
        const V t533 = x59 - x49;
        const V x47 = io.in(47);
        const V t534 = t532 + x47;
        const V t535 = c[4] * t532;
        const V t536 = x47 - t535;
        const V t537 = c[5] * t533;
        // real block of 3
        const V x43 = io.in(43);
        const V x21 = io.in(21);
        const V t538 = x43 + x21;
        const V t539 = x43 - x21;
        const V x29 = io.in(29);
        const V t540 = t538 + x29;
        const V t541 = c[4] * t538;
        const V t542 = x29 - t541;
        const V t543 = c[5] * t539;
        // real block of 3
        const V x45 = io.in(45);
        const V x9 = io.in(9);
        const V t544 = x45 + x9;
        const V t545 = x45 - x9;
        const V x39 = io.in(39);
        const V t546 = t544 + x39;
        const V t547 = c[4] * t544;
        const V t548 = x39 - t547;
        const V t549 = c[5] * t545;
        // real block of 3
        const V x37 = io.in(37);
        const V x57 = io.in(57);
        const V t550 = x37 + x57;
        const V t551 = x37 - x57;
        const V x61 = io.in(61);
        const V t552 = t550 + x61;
        const V t553 = c[4] * t550;
        const V t554 = x61 - t553;
        const V t555 = c[5] * t551;
        // real block of 3
        const V x7 = io.in(7);
        const V x51 = io.in(51);
        const V t556 = x7 + x51;
        const V t557 = x7 - x51;
        const V x35 = io.in(35);
        const V t558 = t556 + x35;
        const V t559 = c[4] * t556;
        const V t560 = x35 - t559;
        const V t561 = c[5] * t557;
        // real block of 3
        const V x3 = io.in(3);
        const V x13 = io.in(13);
        const V t562 = x3 + x13;
        const V t563 = x3 - x13;
        const V x15 = io.in(15);
        const V t564 = t562 + x15;
        const V t565 = c[4] * t562;
        const V t566 = x15 - t565;
        const V t567 = c[5] * t563;
        // real block of 2
        const V t568 = t510 + t540;
        const V t569 = t510 - t540;
        // real block of 2
        const V t570 = t522 + t552;
        const V t571 = t522 - t552;
        // real block of 2
        const V t572 = t534 + t564;
        const V t573 = t534 - t564;
        // real block of 2
        const V t574 = t546 + t516;
        const V t575 = t546 - t516;
        // real block of 2
        const V t576 = t558 + t528;
        const V t577 = t558 - t528;
        // real block of 5
        const V t578 = t570 + t576;
        const V t579 = t570 - t576;
        const V t580 = t574 + t572;
        const V t581 = t574 - t572;
        const V t582 = t578 + t580;
        const V t583 = t582 + t568;
        const V t584 = c[0] * t578;
        const V t585 = c[1] * t580;
        const V t586 = t584 - t585;
        const V t587 = t586 + t568;
        const V t588 = c[2] * t579;
        const V t589 = c[3] * t581;
        const V t590 = t589 - t588;
        const V t591 = c[1] * t578;
        const V t592 = t568 - t591;
        const V t593 = c[0] * t580;
        const V t594 = t592 + t593;
        const V t595 = c[3] * t579;
        const V t596 = c[2] * t581;
        const V t597 = t595 + t596;
        // real block of 5
        const V t598 = t571 + t577;
        const V t599 = t571 - t577;
        const V t600 = t575 + t573;
        const V t601 = t575 - t573;
        const V t602 = t598 + t600;
        const V t603 = t602 + t569;
        const V t604 = c[0] * t598;
        const V t605 = c[1] * t600;
        const V t606 = t604 - t605;
        const V t607 = t606 + t569;
        const V t608 = c[2] * t599;
        const V t609 = c[3] * t601;
        const V t610 = t609 - t608;
        const V t611 = c[1] * t598;
        const V t612 = t569 - t611;
        const V t613 = c[0] * t600;
        const V t614 = t612 + t613;
        const V t615 = c[3] * t599;
        const V t616 = c[2] * t601;
        const V t617 = t615 + t616;
        // complex block of 2
        const V t618 = t512 + t542;
        const V t619 = t513 + t543;
        const V t620 = t512 - t542;
        const V t621 = t543 - t513;
        // complex block of 2
        const V t622 = t524 + t554;
        const V t623 = t525 + t555;
        const V t624 = t524 - t554;
        const V t625 = t555 - t525;
        // complex block of 2
        const V t626 = t536 + t566;
        const V t627 = t537 + t567;
        const V t628 = t536 - t566;
        const V t629 = t567 - t537;
        // complex block of 2
        const V t630 = t548 + t518;
        const V t631 = t549 + t519;
        const V t632 = t548 - t518;
        const V t633 = t519 - t549;
        // complex block of 2
        const V t634 = t560 + t530;
        const V t635 = t561 + t531;
        const V t636 = t560 - t530;
        const V t637 = t531 - t561;
        // complex block of 5
        const V t638 = t622 + t634;
        const V t639 = t623 + t635;
        const V t640 = t622 - t634;
        const V t641 = t635 - t623;
        const V t642 = t630 + t626;
        const V t643 = t631 + t627;
        const V t644 = t630 - t626;
        const V t645 = t627 - t631;
        const V t646 = t638 + t642;
        const V t647 = t639 + t643;
        const V t648 = t646 + t618;
        const V t649 = t647 + t619;
        const V t650 = c[0] * t638;
        const V t651 = c[1] * t642;
        const V t652 = t650 - t651;
        const V t653 = t652 + t618;
        const V t654 = c[0] * t639;
        const V t655 = t619 + t654;
        const V t656 = c[1] * t643;
        const V t657 = t656 - t655;
        const V t658 = c[2] * t640;
        const V t659 = c[3] * t644;
        const V t660 = t658 - t659;
        const V t661 = c[2] * t641;
        const V t662 = c[3] * t645;
        const V t663 = t661 - t662;
        const V t664 = t653 + t663;
        const V t665 = t657 - t660;
        const V t666 = t653 - t663;
        const V t667 = t657 + t660;
        const V t668 = c[1] * t638;
        const V t669 = t618 - t668;
        const V t670 = c[0] * t642;
        const V t671 = t669 + t670;
        const V t672 = c[1] * t639;
        const V t673 = c[0] * t643;
        const V t674 = t672 - t673;
        const V t675 = t674 - t619;
        const V t676 = c[3] * t640;
        const V t677 = c[2] * t644;
        const V t678 = t676 + t677;
        const V t679 = c[3] * t641;
        const V t680 = c[2] * t645;
        const V t681 = t679 + t680;
        const V t682 = t671 + t681;
        const V t683 = t675 - t678;
        const V t684 = t671 - t681;
        const V t685 = t675 + t678;
        // complex block of 5
        const V t686 = t624 + t636;
        const V t687 = t625 + t637;
        const V t688 = t624 - t636;
        const V t689 = t625 - t637;
        const V t690 = t632 + t628;
        const V t691 = t633 + t629;
        const V t692 = t632 - t628;
        const V t693 = t633 - t629;
        const V t694 = t686 + t690;
        const V t695 = t687 + t691;
        const V t696 = t694 + t620;
        const V t697 = t695 + t621;
        const V t698 = c[0] * t686;
        const V t699 = c[1] * t690;
        const V t700 = t698 - t699;
        const V t701 = t700 + t620;
        const V t702 = c[0] * t687;
        const V t703 = c[1] * t691;
        const V t704 = t702 - t703;
        const V t705 = t704 + t621;
        const V t706 = c[2] * t688;
        const V t707 = c[3] * t692;
        const V t708 = t706 - t707;
        const V t709 = c[2] * t689;
        const V t710 = c[3] * t693;
        const V t711 = t709 - t710;
        const V t712 = t701 + t711;
        const V t713 = t705 - t708;
        const V t714 = t701 - t711;
        const V t715 = t705 + t708;
        const V t716 = c[1] * t686;
        const V t717 = t620 - t716;
        const V t718 = c[0] * t690;
        const V t719 = t717 + t718;
        const V t720 = c[1] * t687;
        const V t721 = t621 - t720;
        const V t722 = c[0] * t691;
        const V t723 = t721 + t722;
        const V t724 = c[3] * t688;
        const V t725 = c[2] * t692;
        const V t726 = t724 + t725;
        const V t727 = c[3] * t689;
        const V t728 = c[2] * t693;
        const V t729 = t727 + t728;
        const V t730 = t719 + t729;
        const V t731 = t723 - t726;
        const V t732 = t719 - t729;
        const V t733 = t723 + t726;
        // real block of 31, multiplier 2
        const V x31 = io.in(31);
        const V t734 = x31 + t583;
        const V t735 = c[30] * t583;
        const V t736 = x31 - t735;
        const V t737 = c[6] * t713;
        const V t738 = c[7] * t712;
        const V t739 = t737 - t738;
        const V t740 = c[6] * t712;
        const V t741 = c[7] * t713;
        const V t742 = t741 + t740;
        const V t743 = c[8] * t685;
        const V t744 = c[9] * t684;
        const V t745 = t743 - t744;
        const V t746 = c[8] * t684;
        const V t747 = c[9] * t685;
        const V t748 = t747 + t746;
        const V t749 = c[10] * t617;
        const V t750 = c[11] * t614;
        const V t751 = t749 - t750;
        const V t752 = c[10] * t614;
        const V t753 = c[11] * t617;
        const V t754 = t753 + t752;
        const V t755 = c[12] * t667;
        const V t756 = c[13] * t666;
        const V t757 = t756 - t755;
        const V t758 = c[12] * t666;
        const V t759 = c[13] * t667;
        const V t760 = t759 + t758;
        const V t761 = c[31] * t696;
        const V t762 = c[32] * t697;
        const V t763 = t762 + t761;
        const V t764 = c[14] * t590;
        const V t765 = c[15] * t587;
        const V t766 = t765 - t764;
        const V t767 = c[14] * t587;
        const V t768 = c[15] * t590;
        const V t769 = t768 + t767;
        const V t770 = c[16] * t731;
        const V t771 = c[17] * t730;
        const V t772 = t770 - t771;
        const V t773 = c[16] * t730;
        const V t774 = c[17] * t731;
        const V t775 = t774 + t773;
        const V t776 = c[18] * t683;
        const V t777 = c[19] * t682;
        const V t778 = t777 - t776;
        const V t779 = c[18] * t682;
        const V t780 = c[19] * t683;
        const V t781 = t780 + t779;
        const V t782 = c[20] * t610;
        const V t783 = c[21] * t607;
        const V t784 = t783 - t782;
        const V t785 = c[20] * t607;
        const V t786 = c[21] * t610;
        const V t787 = t786 + t785;
        const V t788 = c[33] * t649;
        const V t789 = c[34] * t648;
        const V t790 = t789 + t788;
        const V t791 = c[22] * t715;
        const V t792 = c[23] * t714;
        const V t793 = t792 + t791;
        const V t794 = c[22] * t714;
        const V t795 = c[23] * t715;
        const V t796 = t794 - t795;
        const V t797 = c[24] * t597;
        const V t798 = c[25] * t594;
        const V t799 = t797 - t798;
        const V t800 = c[24] * t594;
        const V t801 = c[25] * t597;
        const V t802 = t801 + t800;
        const V t803 = c[26] * t733;
        const V t804 = c[27] * t732;
        const V t805 = t804 + t803;
        const V t806 = c[26] * t732;
        const V t807 = c[27] * t733;
        const V t808 = t806 - t807;
        const V t809 = c[28] * t665;
        const V t810 = c[29] * t664;
        const V t811 = t810 + t809;
        const V t812 = c[28] * t664;
        const V t813 = c[29] * t665;
        const V t814 = t812 - t813;
        const V t815 = c[35] * t603;
        // spectrum block of 3, multiplier 2
        const V t816 = t790 + t736;
        const V t817 = c[4] * t790;
        const V t818 = t736 - t817;
        const V t819 = c[36] * t648;
        const V t820 = c[37] * t649;
        const V t821 = t819 - t820;
        const V t822 = t818 - t821;
        const V t823 = t818 + t821;
        // complex block of 3, multiplier 2
        const V t824 = t814 + t760;
        const V t825 = t811 + t757;
        const V t826 = t760 - t814;
        const V t827 = t811 - t757;
        const V t828 = t769 - t824;
        const V t829 = t825 + t766;
        const V t830 = c[4] * t824;
        const V t831 = t830 + t769;
        const V t832 = c[4] * t825;
        const V t833 = t766 - t832;
        const V t834 = c[5] * t826;
        const V t835 = c[5] * t827;
        const V t836 = t831 + t835;
        const V t837 = t833 - t834;
        const V t838 = t831 - t835;
        const V t839 = t833 + t834;
        // complex block of 3, multiplier 2
        const V t840 = t781 + t748;
        const V t841 = t778 + t745;
        const V t842 = t781 - t748;
        const V t843 = t778 - t745;
        const V t844 = t840 + t802;
        const V t845 = t841 + t799;
        const V t846 = c[4] * t840;
        const V t847 = t802 - t846;
        const V t848 = c[4] * t841;
        const V t849 = t799 - t848;
        const V t850 = c[5] * t842;
        const V t851 = c[5] * t843;
        const V t852 = t847 + t851;
        const V t853 = t849 - t850;
        const V t854 = t847 - t851;
        const V t855 = t849 + t850;
        // spectrum block of 5, multiplier 3
        const V t856 = t829 + t845;
        const V t857 = t856 + t816;
        const V t858 = c[0] * t829;
        const V t859 = c[1] * t845;
        const V t860 = t858 - t859;
        const V t861 = t860 + t816;
        const V t862 = c[2] * t828;
        const V t863 = c[3] * t844;
        const V t864 = t862 + t863;
        const V t865 = t861 - t864;
        const V t866 = t861 + t864;
        const V t867 = c[1] * t829;
        const V t868 = t816 - t867;
        const V t869 = c[0] * t845;
        const V t870 = t868 + t869;
        const V t871 = c[3] * t828;
        const V t872 = c[2] * t844;
        const V t873 = t871 - t872;
        const V t874 = t870 - t873;
        const V t875 = t870 + t873;
        // spectrum block of 5, multiplier 3
        const V t876 = t839 + t855;
        const V t877 = t876 + t823;
        const V t878 = c[0] * t839;
        const V t879 = c[1] * t855;
        const V t880 = t878 - t879;
        const V t881 = t880 + t823;
        const V t882 = c[2] * t838;
        const V t883 = c[3] * t854;
        const V t884 = t882 + t883;
        const V t885 = t881 - t884;
        const V t886 = t881 + t884;
        const V t887 = c[1] * t839;
        const V t888 = t823 - t887;
        const V t889 = c[0] * t855;
        const V t890 = t888 + t889;
        const V t891 = c[3] * t838;
        const V t892 = c[2] * t854;
        const V t893 = t891 - t892;
        const V t894 = t890 - t893;
        const V t895 = t890 + t893;
        // spectrum block of 5, multiplier 3
        const V t896 = t837 + t853;
        const V t897 = t896 + t822;
        const V t898 = c[0] * t837;
        const V t899 = c[1] * t853;
        const V t900 = t898 - t899;
        const V t901 = t900 + t822;
        const V t902 = c[2] * t836;
        const V t903 = c[3] * t852;
        const V t904 = t902 + t903;
        const V t905 = t901 - t904;
        const V t906 = t901 + t904;
        const V t907 = c[1] * t837;
        const V t908 = t822 - t907;
        const V t909 = c[0] * t853;
        const V t910 = t908 + t909;
        const V t911 = c[3] * t836;
        const V t912 = c[2] * t852;
        const V t913 = t911 - t912;
        const V t914 = t910 - t913;
        const V t915 = t910 + t913;
        // spectrum block of 3
        const V t916 = t763 + t815;
        const V t917 = c[4] * t763;
        const V t918 = t917 - t815;
        const V t919 = c[38] * t696;
        const V t920 = c[39] * t697;
        const V t921 = t919 - t920;
        const V t922 = t918 - t921;
        const V t923 = t918 + t921;
        // complex block of 3
        const V t924 = t739 + t793;
        const V t925 = t796 - t742;
        const V t926 = t793 - t739;
        const V t927 = t742 + t796;
        const V t928 = t784 - t924;
        const V t929 = t925 - t787;
        const V t930 = c[4] * t924;
        const V t931 = t930 + t784;
        const V t932 = c[4] * t925;
        const V t933 = t787 + t932;
        const V t934 = c[5] * t926;
        const V t935 = c[5] * t927;
        const V t936 = t931 - t935;
        const V t937 = t933 + t934;
        const V t938 = t931 + t935;
        const V t939 = t934 - t933;
        // complex block of 3
        const V t940 = t772 + t805;
        const V t941 = t808 - t775;
        const V t942 = t805 - t772;
        const V t943 = t775 + t808;
        const V t944 = t751 - t940;
        const V t945 = t941 - t754;
        const V t946 = c[4] * t940;
        const V t947 = t946 + t751;
        const V t948 = c[4] * t941;
        const V t949 = t754 + t948;
        const V t950 = c[5] * t942;
        const V t951 = c[5] * t943;
        const V t952 = t947 - t951;
        const V t953 = t949 + t950;
        const V t954 = t947 + t951;
        const V t955 = t950 - t949;
        // spectrum block of 5
        const V t956 = t929 + t945;
        const V t957 = t956 - t916;
        const V t958 = c[0] * t929;
        const V t959 = c[1] * t945;
        const V t960 = t958 - t959;
        const V t961 = t960 - t916;
        const V t962 = c[2] * t928;
        const V t963 = c[3] * t944;
        const V t964 = t962 + t963;
        const V t965 = t961 - t964;
        const V t966 = t961 + t964;
        const V t967 = c[1] * t929;
        const V t968 = t916 + t967;
        const V t969 = c[0] * t945;
        const V t970 = t969 - t968;
        const V t971 = c[3] * t928;
        const V t972 = c[2] * t944;
        const V t973 = t971 - t972;
        const V t974 = t970 - t973;
        const V t975 = t970 + t973;
        // spectrum block of 5
        const V t976 = t937 + t953;
        const V t977 = t922 - t976;
        const V t978 = c[0] * t937;
        const V t979 = t922 - t978;
        const V t980 = c[1] * t953;
        const V t981 = t979 + t980;
        const V t982 = c[2] * t936;
        const V t983 = c[3] * t952;
        const V t984 = t982 + t983;
        const V t985 = t981 - t984;
        const V t986 = t981 + t984;
        const V t987 = c[1] * t937;
        const V t988 = c[0] * t953;
        const V t989 = t987 - t988;
        const V t990 = t989 + t922;
        const V t991 = c[3] * t936;
        const V t992 = c[2] * t952;
        const V t993 = t991 - t992;
        const V t994 = t990 - t993;
        const V t995 = t990 + t993;
        // spectrum block of 5
        const V t996 = t939 + t955;
        const V t997 = t996 + t923;
        const V t998 = c[0] * t939;
        const V t999 = c[1] * t955;
        const V t1000 = t998 - t999;
        const V t1001 = t1000 + t923;
        const V t1002 = c[2] * t938;
        const V t1003 = c[3] * t954;
        const V t1004 = t1002 + t1003;
        const V t1005 = t1001 - t1004;
        const V t1006 = t1001 + t1004;
        const V t1007 = c[1] * t939;
        const V t1008 = t923 - t1007;
        const V t1009 = c[0] * t955;
        const V t1010 = t1008 + t1009;
        const V t1011 = c[3] * t938;
        const V t1012 = c[2] * t954;
        const V t1013 = t1011 - t1012;
        const V t1014 = t1010 - t1013;
        const V t1015 = t1010 + t1013;
        // real block of 2
        const V t1016 = t226 + t734;
        io.re(0, t1016);
        const V t1017 = t226 - t734;
        io.re(31, t1017);
        // complex block of 2
        const V t1018 = t349 + t857;
        io.re(2, t1018);
        const V t1019 = t449 + t957;
        io.im(2, t1019);
        const V t1020 = t349 - t857;
        io.re(29, t1020);
        const V t1021 = t449 - t957;
        io.minusIm(29, t1021);
        // complex block of 2
        const V t1022 = t357 + t865;
        io.re(4, t1022);
        const V t1023 = t457 + t965;
        io.im(4, t1023);
        const V t1024 = t357 - t865;
        io.re(27, t1024);
        const V t1025 = t457 - t965;
        io.minusIm(27, t1025);
        // complex block of 2
        const V t1026 = t378 + t886;
        io.re(6, t1026);
        const V t1027 = t498 + t1006;
        io.minusIm(6, t1027);
        const V t1028 = t378 - t886;
        io.re(25, t1028);
        const V t1029 = t1006 - t498;
        io.minusIm(25, t1029);
        // complex block of 2
        const V t1030 = t366 + t874;
        io.re(8, t1030);
        const V t1031 = t466 + t974;
        io.im(8, t1031);
        const V t1032 = t366 - t874;
        io.re(23, t1032);
        const V t1033 = t466 - t974;
        io.minusIm(23, t1033);
        // complex block of 2
        const V t1034 = t389 + t897;
        io.re(10, t1034);
        const V t1035 = t469 + t977;
        io.im(10, t1035);
        const V t1036 = t389 - t897;
        io.re(21, t1036);
        const V t1037 = t469 - t977;
        io.minusIm(21, t1037);
        // complex block of 2
        const V t1038 = t369 + t877;
        io.re(12, t1038);
        const V t1039 = t489 + t997;
        io.minusIm(12, t1039);
        const V t1040 = t369 - t877;
        io.re(19, t1040);
        const V t1041 = t997 - t489;
        io.minusIm(19, t1041);
        // complex block of 2
        const V t1042 = t386 + t894;
        io.re(14, t1042);
        const V t1043 = t506 + t1014;
        io.im(14, t1043);
        const V t1044 = t386 - t894;
        io.re(17, t1044);
        const V t1045 = t506 - t1014;
        io.minusIm(17, t1045);
        // complex block of 2
        const V t1046 = t367 + t875;
        io.re(16, t1046);
        const V t1047 = t467 + t975;
        io.im(16, t1047);
        const V t1048 = t367 - t875;
        io.re(15, t1048);
        const V t1049 = t467 - t975;
        io.minusIm(15, t1049);
        // complex block of 2
        const V t1050 = t407 + t915;
        io.re(18, t1050);
        const V t1051 = t487 + t995;
        io.im(18, t1051);
        const V t1052 = t407 - t915;
        io.re(13, t1052);
        const V t1053 = t487 - t995;
        io.minusIm(13, t1053);
        // complex block of 2
        const V t1054 = t397 + t905;
        io.re(20, t1054);
        const V t1055 = t477 + t985;
        io.im(20, t1055);
        const V t1056 = t397 - t905;
        io.re(11, t1056);
        const V t1057 = t477 - t985;
        io.minusIm(11, t1057);
        // complex block of 2
        const V t1058 = t406 + t914;
        io.re(22, t1058);
        const V t1059 = t486 + t994;
        io.minusIm(22, t1059);
        const V t1060 = t406 - t914;
        io.re(9, t1060);
        const V t1061 = t994 - t486;
        io.minusIm(9, t1061);
        // complex block of 2
        const V t1062 = t377 + t885;
        io.re(24, t1062);
        const V t1063 = t497 + t1005;
        io.minusIm(24, t1063);
        const V t1064 = t377 - t885;
        io.re(7, t1064);
        const V t1065 = t1005 - t497;
        io.minusIm(7, t1065);
        // complex block of 2
        const V t1066 = t398 + t906;
        io.re(26, t1066);
        const V t1067 = t478 + t986;
        io.minusIm(26, t1067);
        const V t1068 = t398 - t906;
        io.re(5, t1068);
        const V t1069 = t986 - t478;
        io.minusIm(5, t1069);
        // complex block of 2
        const V t1070 = t387 + t895;
        io.re(28, t1070);
        const V t1071 = t507 + t1015;
        io.im(28, t1071);
        const V t1072 = t387 - t895;
        io.re(3, t1072);
        const V t1073 = t507 - t1015;
        io.minusIm(3, t1073);
        // complex block of 2
        const V t1074 = t358 + t866;
        io.re(30, t1074);
        const V t1075 = t458 + t966;
        io.minusIm(30, t1075);
        const V t1076 = t358 - t866;
        io.re(1, t1076);
        const V t1077 = t966 - t458;
        io.minusIm(1, t1077);
    }
};

}  // namespace zulg
