// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 62.
// Complex DFT of 62 points, prime-factor, order 31, 2; one complex number to a register.
// 427 sums, 339 differences, 388 products of registers, which do the 2400 steps of the graph, those with
// `scale` included; 72 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<62> {
    static constexpr int steps = 2400;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.3386491040641593,  // c[6]: Q[1] of 31
        0.15196895108646355,  // c[7]: -P[1] of 31
        0.29980901846811486,  // c[8]: -P[2] of 31
        0.21884316352804659,  // c[9]: Q[2] of 31
        0.37067181273221134,  // c[10]: -P[3] of 31
        0.019498333867134416,  // c[11]: Q[3] of 31
        0.3665614991633792,  // c[12]: P[4] of 31
        0.05839901633481273,  // c[13]: Q[4] of 31
        0.2970284107916672,  // c[14]: P[6] of 31
        0.2226025627892778,  // c[15]: Q[6] of 31
        0.28075102554360776,  // c[16]: Q[7] of 31
        0.24280988331200667,  // c[17]: -P[7] of 31
        0.35531525594489755,  // c[18]: P[8] of 31
        0.1073724670043011,  // c[19]: -Q[8] of 31
        0.008505491359144196,  // c[20]: Q[9] of 31
        0.37108682864596165,  // c[21]: P[9] of 31
        0.36539376648991023,  // c[22]: -Q[11] of 31
        0.06530829340975558,  // c[23]: P[11] of 31
        0.10130252550848418,  // c[24]: Q[12] of 31
        0.35709323166839874,  // c[25]: -P[12] of 31
        0.3312534027537607,  // c[26]: -Q[13] of 31
        0.1674782402040115,  // c[27]: -P[13] of 31
        0.2485676599132395,  // c[28]: P[14] of 31
        0.27566627690567064,  // c[29]: Q[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.2580069240952765,  // c[31]: Q[5] of 31
        0.26685240283098827,  // c[32]: P[5] of 31
        0.3417205692768941,  // c[33]: P[10] of 31
        0.1449304326594425,  // c[34]: Q[10] of 31
        0.1855921454276674,  // c[35]: beta of 31
        0.23110095991255428,  // c[36]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[37]: sin 2 pi 1/3 times Q[5] of 31
        0.1255134364645471,  // c[38]: sin 2 pi 1/3 times Q[10] of 31
        0.2959386939894704,  // c[39]: sin 2 pi 1/3 times P[10] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x32 = io.pair(32);
        const P x4 = io.pair(4);
        // real block of 5
        const P t0 = x32 + x4;
        const P t1 = x32 - x4;
        const P x8 = io.pair(8);
        const P x16 = io.pair(16);
        const P t2 = x8 + x16;
        const P t3 = x8 - x16;
        const P t4 = t0 + t2;
        const P x2 = io.pair(2);
        const P t5 = t4 + x2;
        const P t6 = c[0] * t0;
        const P t7 = c[1] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x2;
        const P t10 = c[2] * t3;
        const P t11 = c[3] * t1;
        const P t12 = t10 - t11;
        const P t13 = c[1] * t0;
        const P t14 = x2 - t13;
        const P t15 = c[0] * t2;
        const P t16 = t14 + t15;
        const P t17 = c[2] * t1;
        const P t18 = c[3] * t3;
        const P t19 = t17 + t18;
        const P x26 = io.pair(26);
        const P x42 = io.pair(42);
        // real block of 5
        const P t20 = x26 + x42;
        const P t21 = x26 - x42;
        const P x22 = io.pair(22);
        const P x44 = io.pair(44);
        const P t22 = x22 + x44;
        const P t23 = x22 - x44;
        const P t24 = t20 + t22;
        const P x52 = io.pair(52);
        const P t25 = t24 + x52;
        const P t26 = c[0] * t20;
        const P t27 = c[1] * t22;
        const P t28 = t26 - t27;
        const P t29 = t28 + x52;
        const P t30 = c[2] * t23;
        const P t31 = c[3] * t21;
        const P t32 = t30 - t31;
        const P t33 = c[1] * t20;
        const P t34 = x52 - t33;
        const P t35 = c[0] * t22;
        const P t36 = t34 + t35;
        const P t37 = c[2] * t21;
        const P t38 = c[3] * t23;
        const P t39 = t37 + t38;
        const P x56 = io.pair(56);
        const P x38 = io.pair(38);
        // real block of 5
        const P t40 = x56 + x38;
        const P t41 = x56 - x38;
        const P x14 = io.pair(14);
        const P x28 = io.pair(28);
        const P t42 = x14 + x28;
        const P t43 = x14 - x28;
        const P t44 = t40 + t42;
        const P x50 = io.pair(50);
        const P t45 = t44 + x50;
        const P t46 = c[0] * t40;
        const P t47 = c[1] * t42;
        const P t48 = t46 - t47;
        const P t49 = t48 + x50;
        const P t50 = c[2] * t43;
        const P t51 = c[3] * t41;
        const P t52 = t50 - t51;
        const P t53 = c[1] * t40;
        const P t54 = x50 - t53;
        const P t55 = c[0] * t42;
        const P t56 = t54 + t55;
        const P t57 = c[2] * t41;
        const P t58 = c[3] * t43;
        const P t59 = t57 + t58;
        const P x30 = io.pair(30);
        const P x58 = io.pair(58);
        // real block of 5
        const P t60 = x30 + x58;
        const P t61 = x30 - x58;
        const P x54 = io.pair(54);
        const P x46 = io.pair(46);
        const P t62 = x54 + x46;
        const P t63 = x54 - x46;
        const P t64 = t60 + t62;
        const P x60 = io.pair(60);
        const P t65 = t64 + x60;
        const P t66 = c[0] * t60;
        const P t67 = c[1] * t62;
        const P t68 = t66 - t67;
        const P t69 = t68 + x60;
        const P t70 = c[2] * t63;
        const P t71 = c[3] * t61;
        const P t72 = t70 - t71;
        const P t73 = c[1] * t60;
        const P t74 = x60 - t73;
        const P t75 = c[0] * t62;
        const P t76 = t74 + t75;
        const P t77 = c[2] * t61;
        const P t78 = c[3] * t63;
        const P t79 = t77 + t78;
        const P x36 = io.pair(36);
        const P x20 = io.pair(20);
        // real block of 5
        const P t80 = x36 + x20;
        const P t81 = x36 - x20;
        const P x40 = io.pair(40);
        const P x18 = io.pair(18);
        const P t82 = x40 + x18;
        const P t83 = x40 - x18;
        const P t84 = t80 + t82;
        const P x10 = io.pair(10);
        const P t85 = t84 + x10;
        const P t86 = c[0] * t80;
        const P t87 = c[1] * t82;
        const P t88 = t86 - t87;
        const P t89 = t88 + x10;
        const P t90 = c[2] * t83;
        const P t91 = c[3] * t81;
        const P t92 = t90 - t91;
        const P t93 = c[1] * t80;
        const P t94 = x10 - t93;
        const P t95 = c[0] * t82;
        const P t96 = t94 + t95;
        const P t97 = c[2] * t81;
        const P t98 = c[3] * t83;
        const P t99 = t97 + t98;
        const P x6 = io.pair(6);
        const P x24 = io.pair(24);
        // real block of 5
        const P t100 = x6 + x24;
        const P t101 = x6 - x24;
        const P x48 = io.pair(48);
        const P x34 = io.pair(34);
        const P t102 = x48 + x34;
        const P t103 = x48 - x34;
        const P t104 = t100 + t102;
        const P x12 = io.pair(12);
        const P t105 = t104 + x12;
        const P t106 = c[0] * t100;
        const P t107 = c[1] * t102;
        const P t108 = t106 - t107;
        const P t109 = t108 + x12;
        const P t110 = c[2] * t103;
        const P t111 = c[3] * t101;
        const P t112 = t110 - t111;
        const P t113 = c[1] * t100;
        const P t114 = x12 - t113;
        const P t115 = c[0] * t102;
        const P t116 = t114 + t115;
        const P t117 = c[2] * t101;
        const P t118 = c[3] * t103;
        const P t119 = t117 + t118;
        // real block of 3
        const P t120 = t45 + t85;
        const P t121 = t45 - t85;
        const P t122 = t120 + t5;
        const P t123 = c[4] * t120;
        const P t124 = t5 - t123;
        // real block of 3
        const P t125 = t105 + t25;
        const P t126 = t105 - t25;
        const P t127 = t125 + t65;
        const P t128 = c[4] * t125;
        const P t129 = t65 - t128;
        // real block of 2
        const P t130 = t122 + t127;
        const P t131 = t122 - t127;
        // complex block of 2
        const P t132 = t124 + t129;
        // real block of 3
        const P t133 = c[5] * t121;
        // real block of 3
        const P t134 = c[5] * t126;
        // complex block of 2
        const P t135 = t133 + t134;
        const P t136 = t124 - t129;
        const P t137 = t134 - t133;
        // complex block of 3
        const P t138 = t49 + t89;
        const P t139 = t52 + t92;
        const P t140 = t49 - t89;
        const P t141 = t52 - t92;
        const P t142 = t138 + t9;
        const P t143 = t139 + t12;
        const P t144 = c[4] * t138;
        const P t145 = t9 - t144;
        const P t146 = c[4] * t139;
        const P t147 = t12 - t146;
        const P t148 = c[5] * t141;
        const P t149 = t145 + t148;
        const P t150 = c[5] * t140;
        const P t151 = t147 - t150;
        const P t152 = t145 - t148;
        const P t153 = t147 + t150;
        // complex block of 3
        const P t154 = t109 + t29;
        const P t155 = t112 + t32;
        const P t156 = t109 - t29;
        const P t157 = t112 - t32;
        const P t158 = t154 + t69;
        const P t159 = t155 + t72;
        const P t160 = c[4] * t154;
        const P t161 = t69 - t160;
        const P t162 = c[4] * t155;
        const P t163 = t72 - t162;
        const P t164 = c[5] * t157;
        const P t165 = t161 + t164;
        const P t166 = c[5] * t156;
        const P t167 = t163 - t166;
        const P t168 = t161 - t164;
        const P t169 = t163 + t166;
        // complex block of 2
        const P t170 = t142 + t158;
        const P t171 = t143 + t159;
        const P t172 = t142 - t158;
        const P t173 = t143 - t159;
        // complex block of 2
        const P t174 = t149 + t165;
        const P t175 = t151 + t167;
        const P t176 = t149 - t165;
        const P t177 = t151 - t167;
        // complex block of 2
        const P t178 = t152 + t168;
        const P t179 = t153 + t169;
        const P t180 = t152 - t168;
        const P t181 = t153 - t169;
        // complex block of 3
        const P t182 = t56 + t96;
        const P t183 = t59 + t99;
        const P t184 = t56 - t96;
        const P t185 = t99 - t59;
        const P t186 = t182 + t16;
        const P t187 = t183 + t19;
        const P t188 = c[4] * t182;
        const P t189 = t16 - t188;
        const P t190 = c[4] * t183;
        const P t191 = t190 - t19;
        const P t192 = c[5] * t185;
        const P t193 = t189 + t192;
        const P t194 = c[5] * t184;
        const P t195 = t191 - t194;
        const P t196 = t189 - t192;
        const P t197 = t191 + t194;
        // complex block of 3
        const P t198 = t116 + t36;
        const P t199 = t119 + t39;
        const P t200 = t116 - t36;
        const P t201 = t39 - t119;
        const P t202 = t198 + t76;
        const P t203 = t199 + t79;
        const P t204 = c[4] * t198;
        const P t205 = t76 - t204;
        const P t206 = c[4] * t199;
        const P t207 = t206 - t79;
        const P t208 = c[5] * t201;
        const P t209 = t205 + t208;
        const P t210 = c[5] * t200;
        const P t211 = t207 - t210;
        const P t212 = t205 - t208;
        const P t213 = t207 + t210;
        // complex block of 2
        const P t214 = t186 + t202;
        const P t215 = t187 + t203;
        const P t216 = t186 - t202;
        const P t217 = t203 - t187;
        // complex block of 2
        const P t218 = t193 + t209;
        const P t219 = t195 + t211;
        const P t220 = t193 - t209;
        const P t221 = t195 - t211;
        // complex block of 2
        const P t222 = t196 + t212;
        const P t223 = t197 + t213;
        const P t224 = t196 - t212;
        const P t225 = t197 - t213;
        const P x0 = io.pair(0);
        // complex block of 31, multiplier 2
        const P t226 = x0 + t130;
        const P t227 = c[30] * t130;
        const P t228 = x0 - t227;
        const P t229 = shuffled<1, 0>(t176);
        const P t230 = c[6] * t229;
        const P t231 = shuffled<1, 0>(t177);
        const P t232 = c[7] * t231;
        const P t233 = t230 + t232;
        const P t234 = P(-c[7], c[7]) * t229;
        const P t235 = P(c[6], -c[6]) * t231;
        const P t236 = t234 + t235;
        const P t237 = c[8] * t222;
        const P t238 = c[9] * t223;
        const P t239 = t237 + t238;
        const P t240 = c[9] * t222;
        const P t241 = c[8] * t223;
        const P t242 = t240 - t241;
        const P t243 = shuffled<1, 0>(t217);
        const P t244 = P(-c[10], c[10]) * t243;
        const P t245 = shuffled<1, 0>(t216);
        const P t246 = P(c[11], -c[11]) * t245;
        const P t247 = t244 + t246;
        const P t248 = c[11] * t243;
        const P t249 = c[10] * t245;
        const P t250 = t248 + t249;
        const P t251 = c[12] * t178;
        const P t252 = c[13] * t179;
        const P t253 = t251 + t252;
        const P t254 = c[13] * t178;
        const P t255 = c[12] * t179;
        const P t256 = t254 - t255;
        const P t257 = shuffled<1, 0>(t136);
        const P t258 = c[31] * t257;
        const P t259 = shuffled<1, 0>(t137);
        const P t260 = c[32] * t259;
        const P t261 = t258 + t260;
        const P t262 = c[14] * t170;
        const P t263 = c[15] * t171;
        const P t264 = t262 - t263;
        const P t265 = c[14] * t171;
        const P t266 = c[15] * t170;
        const P t267 = t265 + t266;
        const P t268 = shuffled<1, 0>(t220);
        const P t269 = c[16] * t268;
        const P t270 = shuffled<1, 0>(t221);
        const P t271 = c[17] * t270;
        const P t272 = t269 + t271;
        const P t273 = P(-c[17], c[17]) * t268;
        const P t274 = P(c[16], -c[16]) * t270;
        const P t275 = t273 + t274;
        const P t276 = c[18] * t218;
        const P t277 = c[19] * t219;
        const P t278 = t276 - t277;
        const P t279 = c[18] * t219;
        const P t280 = c[19] * t218;
        const P t281 = t279 + t280;
        const P t282 = shuffled<1, 0>(t172);
        const P t283 = c[20] * t282;
        const P t284 = shuffled<1, 0>(t173);
        const P t285 = c[21] * t284;
        const P t286 = t283 + t285;
        const P t287 = P(-c[20], c[20]) * t284;
        const P t288 = P(c[21], -c[21]) * t282;
        const P t289 = t287 + t288;
        const P t290 = c[33] * t132;
        const P t291 = c[34] * t135;
        const P t292 = t290 + t291;
        const P t293 = shuffled<1, 0>(t180);
        const P t294 = c[22] * t293;
        const P t295 = shuffled<1, 0>(t181);
        const P t296 = c[23] * t295;
        const P t297 = t294 + t296;
        const P t298 = P(-c[22], c[22]) * t295;
        const P t299 = P(c[23], -c[23]) * t293;
        const P t300 = t298 + t299;
        const P t301 = c[24] * t215;
        const P t302 = c[25] * t214;
        const P t303 = t301 - t302;
        const P t304 = c[25] * t215;
        const P t305 = c[24] * t214;
        const P t306 = t304 + t305;
        const P t307 = shuffled<1, 0>(t224);
        const P t308 = c[26] * t307;
        const P t309 = shuffled<1, 0>(t225);
        const P t310 = c[27] * t309;
        const P t311 = t308 + t310;
        const P t312 = P(-c[27], c[27]) * t307;
        const P t313 = P(c[26], -c[26]) * t309;
        const P t314 = t312 + t313;
        const P t315 = c[28] * t174;
        const P t316 = c[29] * t175;
        const P t317 = t315 + t316;
        const P t318 = c[29] * t174;
        const P t319 = c[28] * t175;
        const P t320 = t318 - t319;
        const P t321 = shuffled<0, 3>(t233, t297);
        const P t322 = shuffled<0, 3>(t297, t233);
        // complex block of 3
        const P t323 = t321 - t322;
        const P t324 = P(-c[4], c[4]) * t323;
        const P t325 = t286 + t324;
        const P t326 = t236 - t300;
        const P t327 = P(-c[5], c[5]) * t326;
        const P t328 = t325 + t327;
        const P t329 = shuffled<0, 3>(t272, t311);
        const P t330 = shuffled<0, 3>(t311, t272);
        // complex block of 3
        const P t331 = t329 - t330;
        const P t332 = c[4] * t331;
        const P t333 = t247 - t332;
        const P t334 = t314 + t275;
        const P t335 = c[5] * t334;
        const P t336 = t333 - t335;
        // spectrum block of 5
        const P t337 = c[0] * t328;
        const V t338 = part<0>(t337);
        const P t339 = c[1] * t336;
        const V t340 = part<0>(t339);
        const V t341 = t338 - t340;
        // spectrum block of 3
        const P t342 = P(-c[4], c[4]) * t261;
        const P t343 = shuffled<1, 0>(t131);
        // complex block of 31, multiplier 2
        const P t344 = P(c[35], -c[35]) * t343;
        // spectrum block of 3
        const P t345 = t342 + t344;
        const V t346 = part<0>(t257);
        const V t347 = c[36] * t346;
        const V t348 = part<0>(t137);
        // spectrum block of 3
        const V t349 = c[37] * t348;
        const P t350 = joined(t347, t349);
        const V t351 = part<0>(t259);
        // spectrum block of 3
        const V t352 = c[37] * t351;
        const V t353 = part<0>(t136);
        // spectrum block of 3
        const V t354 = c[36] * t353;
        const P t355 = joined(t352, t354);
        // spectrum block of 3
        const P t356 = t350 - t355;
        const P t357 = t345 + t356;
        const V t358 = part<0>(t357);
        // spectrum block of 5
        const V t359 = t341 + t358;
        // complex block of 3
        const P t360 = t314 - t275;
        const P t361 = P(c[4], -c[4]) * t360;
        const P t362 = t250 + t361;
        const P t363 = t311 + t272;
        const P t364 = c[5] * t363;
        const P t365 = t362 + t364;
        // complex block of 3
        const P t366 = t300 + t236;
        const P t367 = c[4] * t366;
        const P t368 = t367 + t289;
        const P t369 = t297 + t233;
        const P t370 = P(-c[5], c[5]) * t369;
        const P t371 = t368 + t370;
        // spectrum block of 5
        const P t372 = c[2] * t365;
        const V t373 = part<0>(t372);
        const P t374 = c[3] * t371;
        const V t375 = part<0>(t374);
        const V t376 = t373 - t375;
        const V t377 = t359 - t376;
        const V t378 = t359 + t376;
        const P t379 = c[1] * t328;
        const V t380 = part<0>(t379);
        const V t381 = t358 - t380;
        // spectrum block of 3
        const P t382 = t292 + t228;
        const P t383 = c[4] * t292;
        const P t384 = t228 - t383;
        const P t385 = c[38] * t132;
        const P t386 = c[39] * t135;
        const P t387 = t385 - t386;
        const P t388 = t384 - t387;
        const P t389 = t384 + t387;
        const P t390 = flipped<1, 0>(t250);
        // complex block of 3
        const P t391 = t360 + t390;
        const P t392 = t331 + t247;
        const P t393 = shuffled<0, 3>(t364, t362);
        const P t394 = shuffled<0, 3>(t362, t364);
        const P t395 = t393 - t394;
        const P t396 = t333 + t335;
        // complex block of 3
        const P t397 = t320 + t256;
        const P t398 = t317 + t253;
        const P t399 = t256 - t320;
        const P t400 = t317 - t253;
        const P t401 = t267 - t397;
        const P t402 = t398 + t264;
        const P t403 = c[4] * t397;
        const P t404 = t403 + t267;
        const P t405 = c[4] * t398;
        const P t406 = t264 - t405;
        const P t407 = c[5] * t400;
        const P t408 = t404 + t407;
        const P t409 = c[5] * t399;
        const P t410 = t406 - t409;
        const P t411 = t404 - t407;
        const P t412 = t406 + t409;
        // complex block of 3
        const P t413 = t289 - t366;
        const P t414 = flipped<0, 1>(t286);
        const P t415 = t323 + t414;
        const P t416 = t368 - t370;
        const P t417 = shuffled<0, 3>(t325, t327);
        const P t418 = shuffled<0, 3>(t327, t325);
        const P t419 = t417 - t418;
        // complex block of 3
        const P t420 = t281 + t242;
        const P t421 = t278 - t239;
        const P t422 = t281 - t242;
        const P t423 = t278 + t239;
        const P t424 = t420 + t306;
        const P t425 = t421 + t303;
        const P t426 = c[4] * t420;
        const P t427 = t306 - t426;
        const P t428 = c[4] * t421;
        const P t429 = t303 - t428;
        const P t430 = c[5] * t423;
        const P t431 = t427 + t430;
        const P t432 = c[5] * t422;
        const P t433 = t429 - t432;
        const P t434 = t427 - t430;
        const P t435 = t429 + t432;
        const P t436 = flipped<0, 1>(t344);
        // spectrum block of 3
        const P t437 = t261 + t436;
        const P t438 = t345 - t356;
        // spectrum block of 5
        const P t439 = t402 + t425;
        const P t440 = t439 + t382;
        const P t441 = c[0] * t402;
        const P t442 = c[1] * t425;
        const P t443 = t441 - t442;
        const P t444 = t443 + t382;
        const P t445 = c[3] * t401;
        const P t446 = c[2] * t424;
        const P t447 = t445 + t446;
        const P t448 = t444 - t447;
        const P t449 = t444 + t447;
        const P t450 = c[1] * t402;
        const P t451 = t382 - t450;
        const P t452 = c[0] * t425;
        const P t453 = t451 + t452;
        const P t454 = c[2] * t401;
        const P t455 = c[3] * t424;
        const P t456 = t454 - t455;
        const P t457 = t453 - t456;
        const P t458 = t453 + t456;
        // spectrum block of 5
        const P t459 = t415 + t392;
        const P t460 = flipped<0, 1>(t437);
        const P t461 = t459 + t460;
        const P t462 = c[0] * t415;
        const P t463 = c[1] * t392;
        const P t464 = t462 - t463;
        const P t465 = t464 + t460;
        const P t466 = c[3] * t413;
        const P t467 = c[2] * t391;
        const P t468 = t466 + t467;
        const P t469 = t465 + t468;
        const P t470 = t465 - t468;
        const P t471 = P(-c[1], c[1]) * t415;
        const P t472 = t437 + t471;
        const P t473 = c[0] * t392;
        const P t474 = flipped<0, 1>(t472);
        const P t475 = t473 + t474;
        const P t476 = c[3] * t391;
        const P t477 = c[2] * t413;
        const P t478 = t476 - t477;
        const P t479 = t475 - t478;
        const P t480 = t475 + t478;
        // spectrum block of 2
        const P t481 = t440 + t461;
        const P t482 = t440 - t461;
        // spectrum block of 2
        const P t483 = t448 + t469;
        const P t484 = t448 - t469;
        // spectrum block of 2
        const P t485 = t457 + t479;
        const P t486 = t457 - t479;
        // spectrum block of 2
        const P t487 = t458 + t480;
        const P t488 = t458 - t480;
        // spectrum block of 2
        const P t489 = t449 + t470;
        const P t490 = t449 - t470;
        // spectrum block of 5
        const P t491 = t410 + t433;
        const P t492 = t491 + t388;
        const P t493 = c[0] * t410;
        const P t494 = c[1] * t433;
        const P t495 = t493 - t494;
        const P t496 = t495 + t388;
        const P t497 = c[3] * t408;
        const P t498 = c[2] * t431;
        const P t499 = t497 + t498;
        const P t500 = t496 - t499;
        const P t501 = t496 + t499;
        const P t502 = c[1] * t410;
        const P t503 = t388 - t502;
        const P t504 = c[0] * t433;
        const P t505 = t503 + t504;
        const P t506 = c[2] * t408;
        const P t507 = c[3] * t431;
        const P t508 = t506 - t507;
        const P t509 = t505 - t508;
        const P t510 = t505 + t508;
        const P t511 = flipped<0, 1>(t328);
        // spectrum block of 5
        const P t512 = t336 + t511;
        const P t513 = t512 + t357;
        const V t514 = part<1>(t357);
        const V t515 = part<1>(t337);
        // spectrum block of 5
        const V t516 = t514 - t515;
        const V t517 = part<1>(t339);
        const V t518 = t516 - t517;
        const V t519 = part<1>(t374);
        const V t520 = part<1>(t372);
        const V t521 = t519 + t520;
        const V t522 = t518 + t521;
        const V t523 = t518 - t521;
        const V t524 = part<1>(t379);
        // spectrum block of 5
        const P t525 = c[0] * t336;
        const V t526 = part<1>(t525);
        // spectrum block of 5
        const V t527 = t524 + t526;
        const P t528 = joined(t381, t527);
        const P t529 = shuffled<0, 3>(t525, t357);
        // spectrum block of 5
        const P t530 = t528 + t529;
        const P t531 = c[3] * t365;
        const P t532 = P(c[2], -c[2]) * t371;
        const P t533 = t531 + t532;
        const P t534 = flipped<0, 1>(t533);
        const P t535 = t530 + t534;
        const P t536 = t530 - t534;
        // spectrum block of 2
        const P t537 = t492 + t513;
        const P t538 = t492 - t513;
        const P t539 = joined(t377, t522);
        // spectrum block of 2
        const P t540 = t500 + t539;
        const P t541 = t500 - t539;
        // spectrum block of 2
        const P t542 = t509 + t535;
        const P t543 = t509 - t535;
        // spectrum block of 2
        const P t544 = t510 + t536;
        const P t545 = t510 - t536;
        const P t546 = joined(t378, t523);
        // spectrum block of 2
        const P t547 = t501 + t546;
        const P t548 = t501 - t546;
        // spectrum block of 5
        const P t549 = t412 + t435;
        const P t550 = t549 + t389;
        const P t551 = c[0] * t412;
        const P t552 = c[1] * t435;
        const P t553 = t551 - t552;
        const P t554 = t553 + t389;
        const P t555 = c[3] * t411;
        const P t556 = c[2] * t434;
        const P t557 = t555 + t556;
        const P t558 = t554 - t557;
        const P t559 = t554 + t557;
        const P t560 = c[1] * t412;
        const P t561 = t389 - t560;
        const P t562 = c[0] * t435;
        const P t563 = t561 + t562;
        const P t564 = c[2] * t411;
        const P t565 = c[3] * t434;
        const P t566 = t564 - t565;
        const P t567 = t563 - t566;
        const P t568 = t563 + t566;
        // spectrum block of 5
        const P t569 = t419 + t396;
        const P t570 = t569 + t438;
        const P t571 = c[0] * t419;
        const P t572 = c[1] * t396;
        const P t573 = t571 - t572;
        const P t574 = t573 + t438;
        const P t575 = c[3] * t416;
        const P t576 = c[2] * t395;
        const P t577 = t575 + t576;
        const P t578 = t574 + t577;
        const P t579 = t574 - t577;
        const P t580 = c[1] * t419;
        const P t581 = t438 - t580;
        const P t582 = c[0] * t396;
        const P t583 = t581 + t582;
        const P t584 = c[3] * t395;
        const P t585 = c[2] * t416;
        const P t586 = t584 - t585;
        const P t587 = t583 - t586;
        const P t588 = t583 + t586;
        // spectrum block of 2
        const P t589 = t550 + t570;
        const P t590 = t550 - t570;
        // spectrum block of 2
        const P t591 = t558 + t578;
        const P t592 = t558 - t578;
        // spectrum block of 2
        const P t593 = t567 + t587;
        const P t594 = t567 - t587;
        // spectrum block of 2
        const P t595 = t568 + t588;
        const P t596 = t568 - t588;
        // spectrum block of 2
        const P t597 = t559 + t579;
        const P t598 = t559 - t579;
        const P x1 = io.pair(1);
        const P x35 = io.pair(35);
        // real block of 5
        const P t599 = x1 + x35;
        const P t600 = x1 - x35;
        const P x39 = io.pair(39);
        const P x47 = io.pair(47);
        const P t601 = x39 + x47;
        const P t602 = x39 - x47;
        const P t603 = t599 + t601;
        const P x33 = io.pair(33);
        const P t604 = t603 + x33;
        const P t605 = c[0] * t599;
        const P t606 = c[1] * t601;
        const P t607 = t605 - t606;
        const P t608 = t607 + x33;
        const P t609 = c[2] * t602;
        const P t610 = c[3] * t600;
        const P t611 = t609 - t610;
        const P t612 = c[1] * t599;
        const P t613 = x33 - t612;
        const P t614 = c[0] * t601;
        const P t615 = t613 + t614;
        const P t616 = c[2] * t600;
        const P t617 = c[3] * t602;
        const P t618 = t616 + t617;
        const P x57 = io.pair(57);
        const P x11 = io.pair(11);
        // real block of 5
        const P t619 = x57 + x11;
        const P t620 = x57 - x11;
        const P x53 = io.pair(53);
        const P x13 = io.pair(13);
        const P t621 = x53 + x13;
        const P t622 = x53 - x13;
        const P t623 = t619 + t621;
        const P x21 = io.pair(21);
        const P t624 = t623 + x21;
        const P t625 = c[0] * t619;
        const P t626 = c[1] * t621;
        const P t627 = t625 - t626;
        const P t628 = t627 + x21;
        const P t629 = c[2] * t622;
        const P t630 = c[3] * t620;
        const P t631 = t629 - t630;
        const P t632 = c[1] * t619;
        const P t633 = x21 - t632;
        const P t634 = c[0] * t621;
        const P t635 = t633 + t634;
        const P t636 = c[2] * t620;
        const P t637 = c[3] * t622;
        const P t638 = t636 + t637;
        const P x25 = io.pair(25);
        const P x7 = io.pair(7);
        // real block of 5
        const P t639 = x25 + x7;
        const P t640 = x25 - x7;
        const P x45 = io.pair(45);
        const P x59 = io.pair(59);
        const P t641 = x45 + x59;
        const P t642 = x45 - x59;
        const P t643 = t639 + t641;
        const P x19 = io.pair(19);
        const P t644 = t643 + x19;
        const P t645 = c[0] * t639;
        const P t646 = c[1] * t641;
        const P t647 = t645 - t646;
        const P t648 = t647 + x19;
        const P t649 = c[2] * t642;
        const P t650 = c[3] * t640;
        const P t651 = t649 - t650;
        const P t652 = c[1] * t639;
        const P t653 = x19 - t652;
        const P t654 = c[0] * t641;
        const P t655 = t653 + t654;
        const P t656 = c[2] * t640;
        const P t657 = c[3] * t642;
        const P t658 = t656 + t657;
        const P x61 = io.pair(61);
        const P x27 = io.pair(27);
        // real block of 5
        const P t659 = x61 + x27;
        const P t660 = x61 - x27;
        const P x23 = io.pair(23);
        const P x15 = io.pair(15);
        const P t661 = x23 + x15;
        const P t662 = x23 - x15;
        const P t663 = t659 + t661;
        const P x29 = io.pair(29);
        const P t664 = t663 + x29;
        const P t665 = c[0] * t659;
        const P t666 = c[1] * t661;
        const P t667 = t665 - t666;
        const P t668 = t667 + x29;
        const P t669 = c[2] * t662;
        const P t670 = c[3] * t660;
        const P t671 = t669 - t670;
        const P t672 = c[1] * t659;
        const P t673 = x29 - t672;
        const P t674 = c[0] * t661;
        const P t675 = t673 + t674;
        const P t676 = c[2] * t660;
        const P t677 = c[3] * t662;
        const P t678 = t676 + t677;
        const P x5 = io.pair(5);
        const P x51 = io.pair(51);
        // real block of 5
        const P t679 = x5 + x51;
        const P t680 = x5 - x51;
        const P x9 = io.pair(9);
        const P x49 = io.pair(49);
        const P t681 = x9 + x49;
        const P t682 = x9 - x49;
        const P t683 = t679 + t681;
        const P x41 = io.pair(41);
        const P t684 = t683 + x41;
        const P t685 = c[0] * t679;
        const P t686 = c[1] * t681;
        const P t687 = t685 - t686;
        const P t688 = t687 + x41;
        const P t689 = c[2] * t682;
        const P t690 = c[3] * t680;
        const P t691 = t689 - t690;
        const P t692 = c[1] * t679;
        const P t693 = x41 - t692;
        const P t694 = c[0] * t681;
        const P t695 = t693 + t694;
        const P t696 = c[2] * t680;
        const P t697 = c[3] * t682;
        const P t698 = t696 + t697;
        const P x37 = io.pair(37);
        const P x55 = io.pair(55);
        // real block of 5
        const P t699 = x37 + x55;
        const P t700 = x37 - x55;
        const P x17 = io.pair(17);
        const P x3 = io.pair(3);
        const P t701 = x17 + x3;
        const P t702 = x17 - x3;
        const P t703 = t699 + t701;
        const P x43 = io.pair(43);
        const P t704 = t703 + x43;
        const P t705 = c[0] * t699;
        const P t706 = c[1] * t701;
        const P t707 = t705 - t706;
        const P t708 = t707 + x43;
        const P t709 = c[2] * t702;
        const P t710 = c[3] * t700;
        const P t711 = t709 - t710;
        const P t712 = c[1] * t699;
        const P t713 = x43 - t712;
        const P t714 = c[0] * t701;
        const P t715 = t713 + t714;
        const P t716 = c[2] * t700;
        const P t717 = c[3] * t702;
        const P t718 = t716 + t717;
        // real block of 3
        const P t719 = t644 + t684;
        const P t720 = t644 - t684;
        const P t721 = t719 + t604;
        const P t722 = c[4] * t719;
        const P t723 = t604 - t722;
        // real block of 3
        const P t724 = t704 + t624;
        const P t725 = t704 - t624;
        const P t726 = t724 + t664;
        const P t727 = c[4] * t724;
        const P t728 = t664 - t727;
        // real block of 2
        const P t729 = t721 + t726;
        const P t730 = t721 - t726;
        // complex block of 2
        const P t731 = t723 + t728;
        // real block of 3
        const P t732 = c[5] * t720;
        // real block of 3
        const P t733 = c[5] * t725;
        // complex block of 2
        const P t734 = t732 + t733;
        const P t735 = t723 - t728;
        const P t736 = t733 - t732;
        // complex block of 3
        const P t737 = t648 + t688;
        const P t738 = t651 + t691;
        const P t739 = t648 - t688;
        const P t740 = t651 - t691;
        const P t741 = t737 + t608;
        const P t742 = t738 + t611;
        const P t743 = c[4] * t737;
        const P t744 = t608 - t743;
        const P t745 = c[4] * t738;
        const P t746 = t611 - t745;
        const P t747 = c[5] * t740;
        const P t748 = t744 + t747;
        const P t749 = c[5] * t739;
        const P t750 = t746 - t749;
        const P t751 = t744 - t747;
        const P t752 = t746 + t749;
        // complex block of 3
        const P t753 = t708 + t628;
        const P t754 = t711 + t631;
        const P t755 = t708 - t628;
        const P t756 = t711 - t631;
        const P t757 = t753 + t668;
        const P t758 = t754 + t671;
        const P t759 = c[4] * t753;
        const P t760 = t668 - t759;
        const P t761 = c[4] * t754;
        const P t762 = t671 - t761;
        const P t763 = c[5] * t756;
        const P t764 = t760 + t763;
        const P t765 = c[5] * t755;
        const P t766 = t762 - t765;
        const P t767 = t760 - t763;
        const P t768 = t762 + t765;
        // complex block of 2
        const P t769 = t741 + t757;
        const P t770 = t742 + t758;
        const P t771 = t741 - t757;
        const P t772 = t742 - t758;
        // complex block of 2
        const P t773 = t748 + t764;
        const P t774 = t750 + t766;
        const P t775 = t748 - t764;
        const P t776 = t750 - t766;
        // complex block of 2
        const P t777 = t751 + t767;
        const P t778 = t752 + t768;
        const P t779 = t751 - t767;
        const P t780 = t752 - t768;
        // complex block of 3
        const P t781 = t655 + t695;
        const P t782 = t658 + t698;
        const P t783 = t655 - t695;
        const P t784 = t698 - t658;
        const P t785 = t781 + t615;
        const P t786 = t782 + t618;
        const P t787 = c[4] * t781;
        const P t788 = t615 - t787;
        const P t789 = c[4] * t782;
        const P t790 = t789 - t618;
        const P t791 = c[5] * t784;
        const P t792 = t788 + t791;
        const P t793 = c[5] * t783;
        const P t794 = t790 - t793;
        const P t795 = t788 - t791;
        const P t796 = t790 + t793;
        // complex block of 3
        const P t797 = t715 + t635;
        const P t798 = t718 + t638;
        const P t799 = t715 - t635;
        const P t800 = t638 - t718;
        const P t801 = t797 + t675;
        const P t802 = t798 + t678;
        const P t803 = c[4] * t797;
        const P t804 = t675 - t803;
        const P t805 = c[4] * t798;
        const P t806 = t805 - t678;
        const P t807 = c[5] * t800;
        const P t808 = t804 + t807;
        const P t809 = c[5] * t799;
        const P t810 = t806 - t809;
        const P t811 = t804 - t807;
        const P t812 = t806 + t809;
        // complex block of 2
        const P t813 = t785 + t801;
        const P t814 = t786 + t802;
        const P t815 = t785 - t801;
        const P t816 = t802 - t786;
        // complex block of 2
        const P t817 = t792 + t808;
        const P t818 = t794 + t810;
        const P t819 = t792 - t808;
        const P t820 = t794 - t810;
        // complex block of 2
        const P t821 = t795 + t811;
        const P t822 = t796 + t812;
        const P t823 = t795 - t811;
        const P t824 = t796 - t812;
        const P x31 = io.pair(31);
        // complex block of 31, multiplier 2
        const P t825 = x31 + t729;
        const P t826 = c[30] * t729;
        const P t827 = x31 - t826;
        const P t828 = shuffled<1, 0>(t775);
        const P t829 = c[6] * t828;
        const P t830 = shuffled<1, 0>(t776);
        const P t831 = c[7] * t830;
        const P t832 = t829 + t831;
        const P t833 = P(-c[7], c[7]) * t828;
        const P t834 = P(c[6], -c[6]) * t830;
        const P t835 = t833 + t834;
        const P t836 = c[8] * t821;
        const P t837 = c[9] * t822;
        const P t838 = t836 + t837;
        const P t839 = c[9] * t821;
        const P t840 = c[8] * t822;
        const P t841 = t839 - t840;
        const P t842 = shuffled<1, 0>(t816);
        const P t843 = P(-c[10], c[10]) * t842;
        const P t844 = shuffled<1, 0>(t815);
        const P t845 = P(c[11], -c[11]) * t844;
        const P t846 = t843 + t845;
        const P t847 = c[11] * t842;
        const P t848 = c[10] * t844;
        const P t849 = t847 + t848;
        const P t850 = c[12] * t777;
        const P t851 = c[13] * t778;
        const P t852 = t850 + t851;
        const P t853 = c[13] * t777;
        const P t854 = c[12] * t778;
        const P t855 = t853 - t854;
        const P t856 = shuffled<1, 0>(t735);
        const P t857 = c[31] * t856;
        const P t858 = shuffled<1, 0>(t736);
        const P t859 = c[32] * t858;
        const P t860 = t857 + t859;
        const P t861 = c[14] * t769;
        const P t862 = c[15] * t770;
        const P t863 = t861 - t862;
        const P t864 = c[14] * t770;
        const P t865 = c[15] * t769;
        const P t866 = t864 + t865;
        const P t867 = shuffled<1, 0>(t819);
        const P t868 = c[16] * t867;
        const P t869 = shuffled<1, 0>(t820);
        const P t870 = c[17] * t869;
        const P t871 = t868 + t870;
        const P t872 = P(-c[17], c[17]) * t867;
        const P t873 = P(c[16], -c[16]) * t869;
        const P t874 = t872 + t873;
        const P t875 = c[18] * t817;
        const P t876 = c[19] * t818;
        const P t877 = t875 - t876;
        const P t878 = c[18] * t818;
        const P t879 = c[19] * t817;
        const P t880 = t878 + t879;
        const P t881 = shuffled<1, 0>(t771);
        const P t882 = c[20] * t881;
        const P t883 = shuffled<1, 0>(t772);
        const P t884 = c[21] * t883;
        const P t885 = t882 + t884;
        const P t886 = P(-c[20], c[20]) * t883;
        const P t887 = P(c[21], -c[21]) * t881;
        const P t888 = t886 + t887;
        const P t889 = c[33] * t731;
        const P t890 = c[34] * t734;
        const P t891 = t889 + t890;
        const P t892 = shuffled<1, 0>(t779);
        const P t893 = c[22] * t892;
        const P t894 = shuffled<1, 0>(t780);
        const P t895 = c[23] * t894;
        const P t896 = t893 + t895;
        const P t897 = P(-c[22], c[22]) * t894;
        const P t898 = P(c[23], -c[23]) * t892;
        const P t899 = t897 + t898;
        const P t900 = c[24] * t814;
        const P t901 = c[25] * t813;
        const P t902 = t900 - t901;
        const P t903 = c[25] * t814;
        const P t904 = c[24] * t813;
        const P t905 = t903 + t904;
        const P t906 = shuffled<1, 0>(t823);
        const P t907 = c[26] * t906;
        const P t908 = shuffled<1, 0>(t824);
        const P t909 = c[27] * t908;
        const P t910 = t907 + t909;
        const P t911 = P(-c[27], c[27]) * t906;
        const P t912 = P(c[26], -c[26]) * t908;
        const P t913 = t911 + t912;
        const P t914 = c[28] * t773;
        const P t915 = c[29] * t774;
        const P t916 = t914 + t915;
        const P t917 = c[29] * t773;
        const P t918 = c[28] * t774;
        const P t919 = t917 - t918;
        const P t920 = shuffled<0, 3>(t832, t896);
        const P t921 = shuffled<0, 3>(t896, t832);
        // complex block of 3
        const P t922 = t920 - t921;
        const P t923 = P(-c[4], c[4]) * t922;
        const P t924 = t885 + t923;
        const P t925 = t835 - t899;
        const P t926 = P(-c[5], c[5]) * t925;
        const P t927 = t924 + t926;
        const P t928 = shuffled<0, 3>(t871, t910);
        const P t929 = shuffled<0, 3>(t910, t871);
        // complex block of 3
        const P t930 = t928 - t929;
        const P t931 = c[4] * t930;
        const P t932 = t846 - t931;
        const P t933 = t913 + t874;
        const P t934 = c[5] * t933;
        const P t935 = t932 - t934;
        // spectrum block of 5
        const P t936 = c[0] * t927;
        const V t937 = part<0>(t936);
        const P t938 = c[1] * t935;
        const V t939 = part<0>(t938);
        const V t940 = t937 - t939;
        // spectrum block of 3
        const P t941 = P(-c[4], c[4]) * t860;
        const P t942 = shuffled<1, 0>(t730);
        // complex block of 31, multiplier 2
        const P t943 = P(c[35], -c[35]) * t942;
        // spectrum block of 3
        const P t944 = t941 + t943;
        const V t945 = part<0>(t856);
        const V t946 = c[36] * t945;
        const V t947 = part<0>(t736);
        // spectrum block of 3
        const V t948 = c[37] * t947;
        const P t949 = joined(t946, t948);
        const V t950 = part<0>(t858);
        // spectrum block of 3
        const V t951 = c[37] * t950;
        const V t952 = part<0>(t735);
        // spectrum block of 3
        const V t953 = c[36] * t952;
        const P t954 = joined(t951, t953);
        // spectrum block of 3
        const P t955 = t949 - t954;
        const P t956 = t944 + t955;
        const V t957 = part<0>(t956);
        // spectrum block of 5
        const V t958 = t940 + t957;
        // complex block of 3
        const P t959 = t913 - t874;
        const P t960 = P(c[4], -c[4]) * t959;
        const P t961 = t849 + t960;
        const P t962 = t910 + t871;
        const P t963 = c[5] * t962;
        const P t964 = t961 + t963;
        // complex block of 3
        const P t965 = t899 + t835;
        const P t966 = c[4] * t965;
        const P t967 = t966 + t888;
        const P t968 = t896 + t832;
        const P t969 = P(-c[5], c[5]) * t968;
        const P t970 = t967 + t969;
        // spectrum block of 5
        const P t971 = c[2] * t964;
        const V t972 = part<0>(t971);
        const P t973 = c[3] * t970;
        const V t974 = part<0>(t973);
        const V t975 = t972 - t974;
        const V t976 = t958 - t975;
        const V t977 = t958 + t975;
        const P t978 = c[1] * t927;
        const V t979 = part<0>(t978);
        const V t980 = t957 - t979;
        // spectrum block of 3
        const P t981 = t891 + t827;
        const P t982 = c[4] * t891;
        const P t983 = t827 - t982;
        const P t984 = c[38] * t731;
        const P t985 = c[39] * t734;
        const P t986 = t984 - t985;
        const P t987 = t983 - t986;
        const P t988 = t983 + t986;
        const P t989 = flipped<1, 0>(t849);
        // complex block of 3
        const P t990 = t959 + t989;
        const P t991 = t930 + t846;
        const P t992 = shuffled<0, 3>(t963, t961);
        const P t993 = shuffled<0, 3>(t961, t963);
        const P t994 = t992 - t993;
        const P t995 = t932 + t934;
        // complex block of 3
        const P t996 = t919 + t855;
        const P t997 = t916 + t852;
        const P t998 = t855 - t919;
        const P t999 = t916 - t852;
        const P t1000 = t866 - t996;
        const P t1001 = t997 + t863;
        const P t1002 = c[4] * t996;
        const P t1003 = t1002 + t866;
        const P t1004 = c[4] * t997;
        const P t1005 = t863 - t1004;
        const P t1006 = c[5] * t999;
        const P t1007 = t1003 + t1006;
        const P t1008 = c[5] * t998;
        const P t1009 = t1005 - t1008;
        const P t1010 = t1003 - t1006;
        const P t1011 = t1005 + t1008;
        // complex block of 3
        const P t1012 = t888 - t965;
        const P t1013 = flipped<0, 1>(t885);
        const P t1014 = t922 + t1013;
        const P t1015 = t967 - t969;
        const P t1016 = shuffled<0, 3>(t924, t926);
        const P t1017 = shuffled<0, 3>(t926, t924);
        const P t1018 = t1016 - t1017;
        // complex block of 3
        const P t1019 = t880 + t841;
        const P t1020 = t877 - t838;
        const P t1021 = t880 - t841;
        const P t1022 = t877 + t838;
        const P t1023 = t1019 + t905;
        const P t1024 = t1020 + t902;
        const P t1025 = c[4] * t1019;
        const P t1026 = t905 - t1025;
        const P t1027 = c[4] * t1020;
        const P t1028 = t902 - t1027;
        const P t1029 = c[5] * t1022;
        const P t1030 = t1026 + t1029;
        const P t1031 = c[5] * t1021;
        const P t1032 = t1028 - t1031;
        const P t1033 = t1026 - t1029;
        const P t1034 = t1028 + t1031;
        const P t1035 = flipped<0, 1>(t943);
        // spectrum block of 3
        const P t1036 = t860 + t1035;
        const P t1037 = t944 - t955;
        // spectrum block of 5
        const P t1038 = t1001 + t1024;
        const P t1039 = t1038 + t981;
        const P t1040 = c[0] * t1001;
        const P t1041 = c[1] * t1024;
        const P t1042 = t1040 - t1041;
        const P t1043 = t1042 + t981;
        const P t1044 = c[3] * t1000;
        const P t1045 = c[2] * t1023;
        const P t1046 = t1044 + t1045;
        const P t1047 = t1043 - t1046;
        const P t1048 = t1043 + t1046;
        const P t1049 = c[1] * t1001;
        const P t1050 = t981 - t1049;
        const P t1051 = c[0] * t1024;
        const P t1052 = t1050 + t1051;
        const P t1053 = c[2] * t1000;
        const P t1054 = c[3] * t1023;
        const P t1055 = t1053 - t1054;
        const P t1056 = t1052 - t1055;
        const P t1057 = t1052 + t1055;
        // spectrum block of 5
        const P t1058 = t1014 + t991;
        const P t1059 = flipped<0, 1>(t1036);
        const P t1060 = t1058 + t1059;
        const P t1061 = c[0] * t1014;
        const P t1062 = c[1] * t991;
        const P t1063 = t1061 - t1062;
        const P t1064 = t1063 + t1059;
        const P t1065 = c[3] * t1012;
        const P t1066 = c[2] * t990;
        const P t1067 = t1065 + t1066;
        const P t1068 = t1064 + t1067;
        const P t1069 = t1064 - t1067;
        const P t1070 = P(-c[1], c[1]) * t1014;
        const P t1071 = t1036 + t1070;
        const P t1072 = c[0] * t991;
        const P t1073 = flipped<0, 1>(t1071);
        const P t1074 = t1072 + t1073;
        const P t1075 = c[3] * t990;
        const P t1076 = c[2] * t1012;
        const P t1077 = t1075 - t1076;
        const P t1078 = t1074 - t1077;
        const P t1079 = t1074 + t1077;
        // spectrum block of 2
        const P t1080 = t1039 + t1060;
        const P t1081 = t1039 - t1060;
        // spectrum block of 2
        const P t1082 = t1047 + t1068;
        const P t1083 = t1047 - t1068;
        // spectrum block of 2
        const P t1084 = t1056 + t1078;
        const P t1085 = t1056 - t1078;
        // spectrum block of 2
        const P t1086 = t1057 + t1079;
        const P t1087 = t1057 - t1079;
        // spectrum block of 2
        const P t1088 = t1048 + t1069;
        const P t1089 = t1048 - t1069;
        // spectrum block of 5
        const P t1090 = t1009 + t1032;
        const P t1091 = t1090 + t987;
        const P t1092 = c[0] * t1009;
        const P t1093 = c[1] * t1032;
        const P t1094 = t1092 - t1093;
        const P t1095 = t1094 + t987;
        const P t1096 = c[3] * t1007;
        const P t1097 = c[2] * t1030;
        const P t1098 = t1096 + t1097;
        const P t1099 = t1095 - t1098;
        const P t1100 = t1095 + t1098;
        const P t1101 = c[1] * t1009;
        const P t1102 = t987 - t1101;
        const P t1103 = c[0] * t1032;
        const P t1104 = t1102 + t1103;
        const P t1105 = c[2] * t1007;
        const P t1106 = c[3] * t1030;
        const P t1107 = t1105 - t1106;
        const P t1108 = t1104 - t1107;
        const P t1109 = t1104 + t1107;
        const P t1110 = flipped<0, 1>(t927);
        // spectrum block of 5
        const P t1111 = t935 + t1110;
        const P t1112 = t1111 + t956;
        const V t1113 = part<1>(t956);
        const V t1114 = part<1>(t936);
        // spectrum block of 5
        const V t1115 = t1113 - t1114;
        const V t1116 = part<1>(t938);
        const V t1117 = t1115 - t1116;
        const V t1118 = part<1>(t973);
        const V t1119 = part<1>(t971);
        const V t1120 = t1118 + t1119;
        const V t1121 = t1117 + t1120;
        const V t1122 = t1117 - t1120;
        const V t1123 = part<1>(t978);
        // spectrum block of 5
        const P t1124 = c[0] * t935;
        const V t1125 = part<1>(t1124);
        // spectrum block of 5
        const V t1126 = t1123 + t1125;
        const P t1127 = joined(t980, t1126);
        const P t1128 = shuffled<0, 3>(t1124, t956);
        // spectrum block of 5
        const P t1129 = t1127 + t1128;
        const P t1130 = c[3] * t964;
        const P t1131 = P(c[2], -c[2]) * t970;
        const P t1132 = t1130 + t1131;
        const P t1133 = flipped<0, 1>(t1132);
        const P t1134 = t1129 + t1133;
        const P t1135 = t1129 - t1133;
        // spectrum block of 2
        const P t1136 = t1091 + t1112;
        const P t1137 = t1091 - t1112;
        const P t1138 = joined(t976, t1121);
        // spectrum block of 2
        const P t1139 = t1099 + t1138;
        const P t1140 = t1099 - t1138;
        // spectrum block of 2
        const P t1141 = t1108 + t1134;
        const P t1142 = t1108 - t1134;
        // spectrum block of 2
        const P t1143 = t1109 + t1135;
        const P t1144 = t1109 - t1135;
        const P t1145 = joined(t977, t1122);
        // spectrum block of 2
        const P t1146 = t1100 + t1145;
        const P t1147 = t1100 - t1145;
        // spectrum block of 5
        const P t1148 = t1011 + t1034;
        const P t1149 = t1148 + t988;
        const P t1150 = c[0] * t1011;
        const P t1151 = c[1] * t1034;
        const P t1152 = t1150 - t1151;
        const P t1153 = t1152 + t988;
        const P t1154 = c[3] * t1010;
        const P t1155 = c[2] * t1033;
        const P t1156 = t1154 + t1155;
        const P t1157 = t1153 - t1156;
        const P t1158 = t1153 + t1156;
        const P t1159 = c[1] * t1011;
        const P t1160 = t988 - t1159;
        const P t1161 = c[0] * t1034;
        const P t1162 = t1160 + t1161;
        const P t1163 = c[2] * t1010;
        const P t1164 = c[3] * t1033;
        const P t1165 = t1163 - t1164;
        const P t1166 = t1162 - t1165;
        const P t1167 = t1162 + t1165;
        // spectrum block of 5
        const P t1168 = t1018 + t995;
        const P t1169 = t1168 + t1037;
        const P t1170 = c[0] * t1018;
        const P t1171 = c[1] * t995;
        const P t1172 = t1170 - t1171;
        const P t1173 = t1172 + t1037;
        const P t1174 = c[3] * t1015;
        const P t1175 = c[2] * t994;
        const P t1176 = t1174 + t1175;
        const P t1177 = t1173 + t1176;
        const P t1178 = t1173 - t1176;
        const P t1179 = c[1] * t1018;
        const P t1180 = t1037 - t1179;
        const P t1181 = c[0] * t995;
        const P t1182 = t1180 + t1181;
        const P t1183 = c[3] * t994;
        const P t1184 = c[2] * t1015;
        const P t1185 = t1183 - t1184;
        const P t1186 = t1182 - t1185;
        const P t1187 = t1182 + t1185;
        // spectrum block of 2
        const P t1188 = t1149 + t1169;
        const P t1189 = t1149 - t1169;
        // spectrum block of 2
        const P t1190 = t1157 + t1177;
        const P t1191 = t1157 - t1177;
        // spectrum block of 2
        const P t1192 = t1166 + t1186;
        const P t1193 = t1166 - t1186;
        // spectrum block of 2
        const P t1194 = t1167 + t1187;
        const P t1195 = t1167 - t1187;
        // spectrum block of 2
        const P t1196 = t1158 + t1178;
        const P t1197 = t1158 - t1178;
        // complex block of 2
        const P t1198 = t226 + t825;
        io.pair(0, t1198);
        const P t1199 = t226 - t825;
        io.pair(31, t1199);
        // complex block of 2
        const P t1200 = t481 + t1080;
        io.pair(2, t1200);
        const P t1201 = t481 - t1080;
        io.pair(33, t1201);
        // complex block of 2
        const P t1202 = t483 + t1082;
        io.pair(4, t1202);
        const P t1203 = t483 - t1082;
        io.pair(35, t1203);
        // complex block of 2
        const P t1204 = t598 + t1197;
        io.pair(6, t1204);
        const P t1205 = t598 - t1197;
        io.pair(37, t1205);
        // complex block of 2
        const P t1206 = t485 + t1084;
        io.pair(8, t1206);
        const P t1207 = t485 - t1084;
        io.pair(39, t1207);
        // complex block of 2
        const P t1208 = t537 + t1136;
        io.pair(10, t1208);
        const P t1209 = t537 - t1136;
        io.pair(41, t1209);
        // complex block of 2
        const P t1210 = t590 + t1189;
        io.pair(12, t1210);
        const P t1211 = t590 - t1189;
        io.pair(43, t1211);
        // complex block of 2
        const P t1212 = t593 + t1192;
        io.pair(14, t1212);
        const P t1213 = t593 - t1192;
        io.pair(45, t1213);
        // complex block of 2
        const P t1214 = t487 + t1086;
        io.pair(16, t1214);
        const P t1215 = t487 - t1086;
        io.pair(47, t1215);
        // complex block of 2
        const P t1216 = t544 + t1143;
        io.pair(18, t1216);
        const P t1217 = t544 - t1143;
        io.pair(49, t1217);
        // complex block of 2
        const P t1218 = t540 + t1139;
        io.pair(20, t1218);
        const P t1219 = t540 - t1139;
        io.pair(51, t1219);
        // complex block of 2
        const P t1220 = t543 + t1142;
        io.pair(22, t1220);
        const P t1221 = t543 - t1142;
        io.pair(53, t1221);
        // complex block of 2
        const P t1222 = t592 + t1191;
        io.pair(24, t1222);
        const P t1223 = t592 - t1191;
        io.pair(55, t1223);
        // complex block of 2
        const P t1224 = t548 + t1147;
        io.pair(26, t1224);
        const P t1225 = t548 - t1147;
        io.pair(57, t1225);
        // complex block of 2
        const P t1226 = t595 + t1194;
        io.pair(28, t1226);
        const P t1227 = t595 - t1194;
        io.pair(59, t1227);
        // complex block of 2
        const P t1228 = t490 + t1089;
        io.pair(30, t1228);
        const P t1229 = t490 - t1089;
        io.pair(61, t1229);
        // complex block of 2
        const P t1230 = t489 + t1088;
        io.pair(32, t1230);
        const P t1231 = t489 - t1088;
        io.pair(1, t1231);
        // complex block of 2
        const P t1232 = t596 + t1195;
        io.pair(34, t1232);
        const P t1233 = t596 - t1195;
        io.pair(3, t1233);
        // complex block of 2
        const P t1234 = t547 + t1146;
        io.pair(36, t1234);
        const P t1235 = t547 - t1146;
        io.pair(5, t1235);
        // complex block of 2
        const P t1236 = t591 + t1190;
        io.pair(38, t1236);
        const P t1237 = t591 - t1190;
        io.pair(7, t1237);
        // complex block of 2
        const P t1238 = t542 + t1141;
        io.pair(40, t1238);
        const P t1239 = t542 - t1141;
        io.pair(9, t1239);
        // complex block of 2
        const P t1240 = t541 + t1140;
        io.pair(42, t1240);
        const P t1241 = t541 - t1140;
        io.pair(11, t1241);
        // complex block of 2
        const P t1242 = t545 + t1144;
        io.pair(44, t1242);
        const P t1243 = t545 - t1144;
        io.pair(13, t1243);
        // complex block of 2
        const P t1244 = t488 + t1087;
        io.pair(46, t1244);
        const P t1245 = t488 - t1087;
        io.pair(15, t1245);
        // complex block of 2
        const P t1246 = t594 + t1193;
        io.pair(48, t1246);
        const P t1247 = t594 - t1193;
        io.pair(17, t1247);
        // complex block of 2
        const P t1248 = t589 + t1188;
        io.pair(50, t1248);
        const P t1249 = t589 - t1188;
        io.pair(19, t1249);
        // complex block of 2
        const P t1250 = t538 + t1137;
        io.pair(52, t1250);
        const P t1251 = t538 - t1137;
        io.pair(21, t1251);
        // complex block of 2
        const P t1252 = t486 + t1085;
        io.pair(54, t1252);
        const P t1253 = t486 - t1085;
        io.pair(23, t1253);
        // complex block of 2
        const P t1254 = t597 + t1196;
        io.pair(56, t1254);
        const P t1255 = t597 - t1196;
        io.pair(25, t1255);
        // complex block of 2
        const P t1256 = t484 + t1083;
        io.pair(58, t1256);
        const P t1257 = t484 - t1083;
        io.pair(27, t1257);
        // complex block of 2
        const P t1258 = t482 + t1081;
        io.pair(60, t1258);
        const P t1259 = t482 - t1081;
        io.pair(29, t1259);
    }
};

}  // namespace zulg
