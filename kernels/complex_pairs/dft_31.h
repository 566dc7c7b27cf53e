// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 31.
// Complex DFT of 31 points, Rader block; one complex number to a register.
// 200 sums, 146 differences, 192 products of registers, which do the 1138 steps of the graph, those with
// `scale` included; 19 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<31> {
    static constexpr int steps = 1138;  // with `scale`
    static constexpr double inverseRoot = 0.1796053020267749;  // 1/sqrt(31), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.03988273291964531,  // c[6]: -Q[1] of 31
        0.3690354256607867,  // c[7]: -P[1] of 31
        0.3711833750943932,  // c[8]: P[2] of 31
        0.0008245188371257438,  // c[9]: -Q[2] of 31
        0.20210094150400285,  // c[10]: Q[3] of 31
        0.31134062892750347,  // c[11]: P[3] of 31
        0.057732967694591485,  // c[12]: P[4] of 31
        0.36666699090448956,  // c[13]: Q[4] of 31
        0.30349444463155195,  // c[14]: P[6] of 31
        0.21370283071490567,  // c[15]: -Q[6] of 31
        0.36985241937462743,  // c[16]: -Q[7] of 31
        0.031416009621091305,  // c[17]: P[7] of 31
        0.2957152178933792,  // c[18]: Q[8] of 31
        0.22434412781271781,  // c[19]: -P[8] of 31
        0.35029620511956006,  // c[20]: -Q[9] of 31
        0.12276133942171241,  // c[21]: P[9] of 31
        0.05080100546858957,  // c[22]: -Q[11] of 31
        0.3676914951710987,  // c[23]: P[11] of 31
        0.3484386235098738,  // c[24]: P[12] of 31
        0.127938670558679,  // c[25]: Q[12] of 31
        0.0592131223973046,  // c[26]: -P[13] of 31
        0.36643087194413576,  // c[27]: Q[13] of 31
        0.3215874570406464,  // c[28]: Q[14] of 31
        0.1853625778087589,  // c[29]: -P[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.2580069240952765,  // c[31]: Q[5] of 31
        0.26685240283098827,  // c[32]: P[5] of 31
        0.3417205692768941,  // c[33]: P[10] of 31
        0.1449304326594425,  // c[34]: Q[10] of 31
        0.1255134364645471,  // c[35]: sin 2 pi 1/3 times Q[10] of 31
        0.2959386939894704,  // c[36]: sin 2 pi 1/3 times P[10] of 31
        0.1855921454276674,  // c[37]: beta of 31
        0.23110095991255428,  // c[38]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[39]: sin 2 pi 1/3 times Q[5] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x16 = io.pair(16);
        const P x2 = io.pair(2);
        // real block of 5
        const P t0 = x16 + x2;
        const P t1 = x16 - x2;
        const P x4 = io.pair(4);
        const P x8 = io.pair(8);
        const P t2 = x4 + x8;
        const P t3 = x4 - x8;
        const P t4 = t0 + t2;
        const P x1 = io.pair(1);
        const P t5 = t4 + x1;
        const P t6 = c[0] * t0;
        const P t7 = c[1] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x1;
        const P t10 = c[2] * t3;
        const P t11 = c[3] * t1;
        const P t12 = t10 - t11;
        const P t13 = c[1] * t0;
        const P t14 = x1 - t13;
        const P t15 = c[0] * t2;
        const P t16 = t14 + t15;
        const P t17 = c[2] * t1;
        const P t18 = c[3] * t3;
        const P t19 = t17 + t18;
        const P x13 = io.pair(13);
        const P x21 = io.pair(21);
        // real block of 5
        const P t20 = x13 + x21;
        const P t21 = x13 - x21;
        const P x11 = io.pair(11);
        const P x22 = io.pair(22);
        const P t22 = x11 + x22;
        const P t23 = x11 - x22;
        const P t24 = t20 + t22;
        const P x26 = io.pair(26);
        const P t25 = t24 + x26;
        const P t26 = c[0] * t20;
        const P t27 = c[1] * t22;
        const P t28 = t26 - t27;
        const P t29 = t28 + x26;
        const P t30 = c[2] * t23;
        const P t31 = c[3] * t21;
        const P t32 = t30 - t31;
        const P t33 = c[1] * t20;
        const P t34 = x26 - t33;
        const P t35 = c[0] * t22;
        const P t36 = t34 + t35;
        const P t37 = c[2] * t21;
        const P t38 = c[3] * t23;
        const P t39 = t37 + t38;
        const P x28 = io.pair(28);
        const P x19 = io.pair(19);
        // real block of 5
        const P t40 = x28 + x19;
        const P t41 = x28 - x19;
        const P x7 = io.pair(7);
        const P x14 = io.pair(14);
        const P t42 = x7 + x14;
        const P t43 = x7 - x14;
        const P t44 = t40 + t42;
        const P x25 = io.pair(25);
        const P t45 = t44 + x25;
        const P t46 = c[0] * t40;
        const P t47 = c[1] * t42;
        const P t48 = t46 - t47;
        const P t49 = t48 + x25;
        const P t50 = c[2] * t43;
        const P t51 = c[3] * t41;
        const P t52 = t50 - t51;
        const P t53 = c[1] * t40;
        const P t54 = x25 - t53;
        const P t55 = c[0] * t42;
        const P t56 = t54 + t55;
        const P t57 = c[2] * t41;
        const P t58 = c[3] * t43;
        const P t59 = t57 + t58;
        const P x15 = io.pair(15);
        const P x29 = io.pair(29);
        // real block of 5
        const P t60 = x15 + x29;
        const P t61 = x15 - x29;
        const P x27 = io.pair(27);
        const P x23 = io.pair(23);
        const P t62 = x27 + x23;
        const P t63 = x27 - x23;
        const P t64 = t60 + t62;
        const P x30 = io.pair(30);
        const P t65 = t64 + x30;
        const P t66 = c[0] * t60;
        const P t67 = c[1] * t62;
        const P t68 = t66 - t67;
        const P t69 = t68 + x30;
        const P t70 = c[2] * t63;
        const P t71 = c[3] * t61;
        const P t72 = t70 - t71;
        const P t73 = c[1] * t60;
        const P t74 = x30 - t73;
        const P t75 = c[0] * t62;
        const P t76 = t74 + t75;
        const P t77 = c[2] * t61;
        const P t78 = c[3] * t63;
        const P t79 = t77 + t78;
        const P x18 = io.pair(18);
        const P x10 = io.pair(10);
        // real block of 5
        const P t80 = x18 + x10;
        const P t81 = x18 - x10;
        const P x20 = io.pair(20);
        const P x9 = io.pair(9);
        const P t82 = x20 + x9;
        const P t83 = x20 - x9;
        const P t84 = t80 + t82;
        const P x5 = io.pair(5);
        const P t85 = t84 + x5;
        const P t86 = c[0] * t80;
        const P t87 = c[1] * t82;
        const P t88 = t86 - t87;
        const P t89 = t88 + x5;
        const P t90 = c[2] * t83;
        const P t91 = c[3] * t81;
        const P t92 = t90 - t91;
        const P t93 = c[1] * t80;
        const P t94 = x5 - t93;
        const P t95 = c[0] * t82;
        const P t96 = t94 + t95;
        const P t97 = c[2] * t81;
        const P t98 = c[3] * t83;
        const P t99 = t97 + t98;
        const P x3 = io.pair(3);
        const P x12 = io.pair(12);
        // real block of 5
        const P t100 = x3 + x12;
        const P t101 = x3 - x12;
        const P x24 = io.pair(24);
        const P x17 = io.pair(17);
        const P t102 = x24 + x17;
        const P t103 = x24 - x17;
        const P t104 = t100 + t102;
        const P x6 = io.pair(6);
        const P t105 = t104 + x6;
        const P t106 = c[0] * t100;
        const P t107 = c[1] * t102;
        const P t108 = t106 - t107;
        const P t109 = t108 + x6;
        const P t110 = c[2] * t103;
        const P t111 = c[3] * t101;
        const P t112 = t110 - t111;
        const P t113 = c[1] * t100;
        const P t114 = x6 - t113;
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
        // complex block of 31
        const P t226 = x0 + t130;
        io.pair(0, t226);
        const P t227 = c[30] * t130;
        const P t228 = x0 - t227;
        const P t229 = shuffled<1, 0>(t176);
        const P t230 = P(-c[6], c[6]) * t229;
        const P t231 = shuffled<1, 0>(t177);
        const P t232 = P(c[7], -c[7]) * t231;
        const P t233 = t230 + t232;
        const P t234 = c[6] * t231;
        const P t235 = c[7] * t229;
        const P t236 = t234 + t235;
        const P t237 = c[8] * t222;
        const P t238 = c[9] * t223;
        const P t239 = t237 + t238;
        const P t240 = c[8] * t223;
        const P t241 = c[9] * t222;
        const P t242 = t240 - t241;
        const P t243 = shuffled<1, 0>(t216);
        const P t244 = c[10] * t243;
        const P t245 = shuffled<1, 0>(t217);
        const P t246 = c[11] * t245;
        const P t247 = t244 + t246;
        const P t248 = P(-c[10], c[10]) * t245;
        const P t249 = P(c[11], -c[11]) * t243;
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
        const P t264 = t262 + t263;
        const P t265 = c[14] * t171;
        const P t266 = c[15] * t170;
        const P t267 = t265 - t266;
        const P t268 = shuffled<1, 0>(t220);
        const P t269 = c[16] * t268;
        const P t270 = shuffled<1, 0>(t221);
        const P t271 = c[17] * t270;
        const P t272 = t269 + t271;
        const P t273 = P(-c[16], c[16]) * t270;
        const P t274 = P(c[17], -c[17]) * t268;
        const P t275 = t273 + t274;
        const P t276 = c[18] * t219;
        const P t277 = c[19] * t218;
        const P t278 = t276 - t277;
        const P t279 = c[19] * t219;
        const P t280 = c[18] * t218;
        const P t281 = t279 + t280;
        const P t282 = shuffled<1, 0>(t172);
        const P t283 = P(-c[20], c[20]) * t282;
        const P t284 = shuffled<1, 0>(t173);
        const P t285 = P(c[21], -c[21]) * t284;
        const P t286 = t283 + t285;
        const P t287 = c[20] * t284;
        const P t288 = c[21] * t282;
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
        const P t301 = c[24] * t214;
        const P t302 = c[25] * t215;
        const P t303 = t301 + t302;
        const P t304 = c[25] * t214;
        const P t305 = c[24] * t215;
        const P t306 = t304 - t305;
        const P t307 = shuffled<1, 0>(t225);
        const P t308 = P(-c[26], c[26]) * t307;
        const P t309 = shuffled<1, 0>(t224);
        const P t310 = P(c[27], -c[27]) * t309;
        const P t311 = t308 + t310;
        const P t312 = c[27] * t307;
        const P t313 = c[26] * t309;
        const P t314 = t312 + t313;
        const P t315 = c[28] * t175;
        const P t316 = c[29] * t174;
        const P t317 = t315 - t316;
        const P t318 = c[29] * t175;
        const P t319 = c[28] * t174;
        const P t320 = t318 + t319;
        // spectrum block of 3
        const P t321 = t292 + t228;
        const P t322 = c[4] * t292;
        const P t323 = t228 - t322;
        const P t324 = c[35] * t132;
        const P t325 = c[36] * t135;
        const P t326 = t324 - t325;
        const P t327 = t323 - t326;
        const P t328 = t323 + t326;
        const P t329 = flipped<0, 1>(t275);
        // complex block of 3
        const P t330 = t314 + t329;
        const P t331 = flipped<1, 0>(t272);
        const P t332 = t311 + t331;
        const P t333 = flipped<1, 0>(t314);
        const P t334 = t333 + t275;
        const P t335 = t311 - t331;
        const P t336 = flipped<1, 0>(t330);
        const P t337 = t336 + t250;
        const P t338 = flipped<0, 1>(t247);
        const P t339 = t332 + t338;
        const P t340 = P(c[4], -c[4]) * t330;
        const P t341 = t250 + t340;
        const P t342 = P(-c[4], c[4]) * t332;
        const P t343 = t247 + t342;
        const P t344 = c[5] * t335;
        const P t345 = t341 + t344;
        const P t346 = P(-c[5], c[5]) * t334;
        const P t347 = t343 + t346;
        const P t348 = t341 - t344;
        const P t349 = shuffled<0, 3>(t343, t346);
        const P t350 = shuffled<0, 3>(t346, t343);
        const P t351 = t349 - t350;
        // complex block of 3
        const P t352 = t320 + t256;
        const P t353 = t317 + t253;
        const P t354 = t256 - t320;
        const P t355 = t317 - t253;
        const P t356 = t267 - t352;
        const P t357 = t353 + t264;
        const P t358 = c[4] * t352;
        const P t359 = t358 + t267;
        const P t360 = c[4] * t353;
        const P t361 = t264 - t360;
        const P t362 = c[5] * t355;
        const P t363 = t359 + t362;
        const P t364 = c[5] * t354;
        const P t365 = t361 - t364;
        const P t366 = t359 - t362;
        const P t367 = t361 + t364;
        const P t368 = flipped<1, 0>(t300);
        // complex block of 3
        const P t369 = t368 + t236;
        const P t370 = flipped<1, 0>(t297);
        const P t371 = t370 + t233;
        const P t372 = t236 - t368;
        const P t373 = flipped<0, 1>(t233);
        const P t374 = t297 + t373;
        const P t375 = t369 + t289;
        const P t376 = t371 + t286;
        const P t377 = P(-c[4], c[4]) * t369;
        const P t378 = flipped<0, 1>(t289);
        const P t379 = t377 + t378;
        const P t380 = c[4] * t371;
        const P t381 = t286 - t380;
        const P t382 = P(-c[5], c[5]) * t374;
        const P t383 = t379 + t382;
        const P t384 = P(c[5], -c[5]) * t372;
        const P t385 = t381 + t384;
        const P t386 = t379 - t382;
        const P t387 = t381 - t384;
        // complex block of 3
        const P t388 = t242 - t281;
        const P t389 = t278 + t239;
        const P t390 = t281 + t242;
        const P t391 = t278 - t239;
        const P t392 = t388 + t306;
        const P t393 = t389 + t303;
        const P t394 = c[4] * t388;
        const P t395 = t306 - t394;
        const P t396 = c[4] * t389;
        const P t397 = t303 - t396;
        const P t398 = c[5] * t391;
        const P t399 = t395 + t398;
        const P t400 = c[5] * t390;
        const P t401 = t397 + t400;
        const P t402 = t395 - t398;
        const P t403 = t397 - t400;
        const P t404 = shuffled<1, 0>(t131);
        // complex block of 31
        const P t405 = c[37] * t404;
        // spectrum block of 3
        const P t406 = t261 + t405;
        const P t407 = P(-c[4], c[4]) * t261;
        const P t408 = flipped<0, 1>(t405);
        const P t409 = t407 + t408;
        const P t410 = shuffled<0, 3>(t257, t259);
        const P t411 = P(c[38], c[39]) * t410;
        const P t412 = shuffled<0, 3>(t259, t257);
        const P t413 = P(c[39], c[38]) * t412;
        const P t414 = t411 - t413;
        const P t415 = t409 + t414;
        const P t416 = t409 - t414;
        // spectrum block of 5
        const P t417 = t357 + t393;
        const P t418 = t417 + t321;
        const P t419 = c[0] * t357;
        const P t420 = c[1] * t393;
        const P t421 = t419 - t420;
        const P t422 = t421 + t321;
        const P t423 = c[3] * t356;
        const P t424 = c[2] * t392;
        const P t425 = t423 + t424;
        const P t426 = t422 - t425;
        const P t427 = t422 + t425;
        const P t428 = c[1] * t357;
        const P t429 = t321 - t428;
        const P t430 = c[0] * t393;
        const P t431 = t429 + t430;
        const P t432 = c[2] * t356;
        const P t433 = c[3] * t392;
        const P t434 = t432 - t433;
        const P t435 = t431 - t434;
        const P t436 = t431 + t434;
        // spectrum block of 5
        const P t437 = t376 + t339;
        const P t438 = flipped<0, 1>(t406);
        const P t439 = t437 + t438;
        const P t440 = c[0] * t376;
        const P t441 = c[1] * t339;
        const P t442 = t440 - t441;
        const P t443 = t442 + t438;
        const P t444 = c[3] * t375;
        const P t445 = P(c[2], -c[2]) * t337;
        const P t446 = t444 + t445;
        const P t447 = flipped<0, 1>(t446);
        const P t448 = t443 + t447;
        const P t449 = t443 - t447;
        const P t450 = P(-c[1], c[1]) * t376;
        const P t451 = t406 + t450;
        const P t452 = c[0] * t339;
        const P t453 = flipped<0, 1>(t451);
        const P t454 = t452 + t453;
        const P t455 = P(-c[2], c[2]) * t375;
        const P t456 = c[3] * t337;
        const P t457 = t455 + t456;
        const P t458 = t454 - t457;
        const P t459 = t454 + t457;
        // spectrum block of 2
        const P t460 = t418 + t439;
        io.pair(1, t460);
        const P t461 = t418 - t439;
        io.pair(30, t461);
        // spectrum block of 2
        const P t462 = t426 + t448;
        io.pair(2, t462);
        const P t463 = t426 - t448;
        io.pair(29, t463);
        // spectrum block of 2
        const P t464 = t435 + t458;
        io.pair(4, t464);
        const P t465 = t435 - t458;
        io.pair(27, t465);
        // spectrum block of 2
        const P t466 = t436 + t459;
        io.pair(8, t466);
        const P t467 = t436 - t459;
        io.pair(23, t467);
        // spectrum block of 2
        const P t468 = t427 + t449;
        io.pair(16, t468);
        const P t469 = t427 - t449;
        io.pair(15, t469);
        // spectrum block of 5
        const P t470 = t365 + t401;
        const P t471 = t470 + t327;
        const P t472 = c[0] * t365;
        const P t473 = c[1] * t401;
        const P t474 = t472 - t473;
        const P t475 = t474 + t327;
        const P t476 = c[3] * t363;
        const P t477 = c[2] * t399;
        const P t478 = t476 + t477;
        const P t479 = t475 - t478;
        const P t480 = t475 + t478;
        const P t481 = c[1] * t365;
        const P t482 = t327 - t481;
        const P t483 = c[0] * t401;
        const P t484 = t482 + t483;
        const P t485 = c[2] * t363;
        const P t486 = c[3] * t399;
        const P t487 = t485 - t486;
        const P t488 = t484 - t487;
        const P t489 = t484 + t487;
        const P t490 = flipped<0, 1>(t347);
        // spectrum block of 5
        const P t491 = t385 + t490;
        const P t492 = t491 + t415;
        const P t493 = c[0] * t385;
        const P t494 = P(-c[1], c[1]) * t347;
        const P t495 = t493 + t494;
        const P t496 = t495 + t415;
        const P t497 = c[3] * t383;
        const P t498 = c[2] * t345;
        const P t499 = t497 + t498;
        const P t500 = t496 + t499;
        const P t501 = t496 - t499;
        const P t502 = c[1] * t385;
        const P t503 = t415 - t502;
        const P t504 = P(c[0], -c[0]) * t347;
        const P t505 = t503 + t504;
        const P t506 = c[3] * t345;
        const P t507 = c[2] * t383;
        const P t508 = t506 - t507;
        const P t509 = t505 - t508;
        const P t510 = t505 + t508;
        // spectrum block of 2
        const P t511 = t471 + t492;
        io.pair(5, t511);
        const P t512 = t471 - t492;
        io.pair(26, t512);
        // spectrum block of 2
        const P t513 = t479 + t500;
        io.pair(10, t513);
        const P t514 = t479 - t500;
        io.pair(21, t514);
        // spectrum block of 2
        const P t515 = t488 + t509;
        io.pair(20, t515);
        const P t516 = t488 - t509;
        io.pair(11, t516);
        // spectrum block of 2
        const P t517 = t489 + t510;
        io.pair(9, t517);
        const P t518 = t489 - t510;
        io.pair(22, t518);
        // spectrum block of 2
        const P t519 = t480 + t501;
        io.pair(18, t519);
        const P t520 = t480 - t501;
        io.pair(13, t520);
        // spectrum block of 5
        const P t521 = t367 + t403;
        const P t522 = t521 + t328;
        const P t523 = c[0] * t367;
        const P t524 = c[1] * t403;
        const P t525 = t523 - t524;
        const P t526 = t525 + t328;
        const P t527 = c[3] * t366;
        const P t528 = c[2] * t402;
        const P t529 = t527 + t528;
        const P t530 = t526 - t529;
        const P t531 = t526 + t529;
        const P t532 = c[1] * t367;
        const P t533 = t328 - t532;
        const P t534 = c[0] * t403;
        const P t535 = t533 + t534;
        const P t536 = c[2] * t366;
        const P t537 = c[3] * t402;
        const P t538 = t536 - t537;
        const P t539 = t535 - t538;
        const P t540 = t535 + t538;
        // spectrum block of 5
        const P t541 = t387 + t351;
        const P t542 = t541 + t416;
        const P t543 = c[0] * t387;
        const P t544 = c[1] * t351;
        const P t545 = t543 - t544;
        const P t546 = t545 + t416;
        const P t547 = c[3] * t386;
        const P t548 = c[2] * t348;
        const P t549 = t547 + t548;
        const P t550 = t546 + t549;
        const P t551 = t546 - t549;
        const P t552 = c[1] * t387;
        const P t553 = t416 - t552;
        const P t554 = c[0] * t351;
        const P t555 = t553 + t554;
        const P t556 = c[3] * t348;
        const P t557 = c[2] * t386;
        const P t558 = t556 - t557;
        const P t559 = t555 - t558;
        const P t560 = t555 + t558;
        // spectrum block of 2
        const P t561 = t522 + t542;
        io.pair(25, t561);
        const P t562 = t522 - t542;
        io.pair(6, t562);
        // spectrum block of 2
        const P t563 = t530 + t550;
        io.pair(19, t563);
        const P t564 = t530 - t550;
        io.pair(12, t564);
        // spectrum block of 2
        const P t565 = t539 + t559;
        io.pair(7, t565);
        const P t566 = t539 - t559;
        io.pair(24, t566);
        // spectrum block of 2
        const P t567 = t540 + t560;
        io.pair(14, t567);
        const P t568 = t540 - t560;
        io.pair(17, t568);
        // spectrum block of 2
        const P t569 = t531 + t551;
        io.pair(28, t569);
        const P t570 = t531 - t551;
        io.pair(3, t570);
    }
};

}  // namespace zulg
