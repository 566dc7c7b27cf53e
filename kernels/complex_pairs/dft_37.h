// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 37.
// Complex DFT of 37 points, Rader block; one complex number to a register.
// 227 sums, 205 differences, 222 products of registers, which do the 1382 steps of the graph, those with
// `scale` included; 22 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<37> {
    static constexpr int steps = 1382;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 4/9
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.766044443118978,  // c[4]: cos 2 pi 8/9
        0.6427876096865394,  // c[5]: -sin 2 pi 8/9
        0.29619813272602386,  // c[6]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[7]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.6634139481689384,  // c[8]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.29019472587628237,  // c[10]: -P[1] of 37
        0.1731604803001738,  // c[11]: Q[1] of 37
        0.19211188317920547,  // c[12]: P[2] of 37
        0.27801178968802176,  // c[13]: Q[2] of 37
        0.3200973041246296,  // c[14]: P[3] of 37
        0.10832934393017396,  // c[15]: Q[3] of 37
        0.3103516055691282,  // c[16]: P[4] of 37
        0.13371391769319224,  // c[17]: Q[4] of 37
        0.2349547827807796,  // c[18]: -Q[5] of 37
        0.24288635390370164,  // c[19]: P[5] of 37
        0.3290788923998385,  // c[20]: Q[6] of 37
        0.07684148255397624,  // c[21]: -P[6] of 37
        0.22329890434335598,  // c[22]: -Q[7] of 37
        0.25364370716273305,  // c[23]: P[7] of 37
        0.24397448521981976,  // c[24]: P[8] of 37
        0.2338246809597342,  // c[25]: Q[8] of 37
        0.21843027770589768,  // c[26]: -P[9] of 37
        0.2578482977363278,  // c[27]: Q[9] of 37
        0.25216731301218065,  // c[28]: Q[10] of 37
        0.22496483527968195,  // c[29]: -P[10] of 37
        0.2870996561549517,  // c[30]: Q[11] of 37
        0.1782451073659696,  // c[31]: P[11] of 37
        0.12424540759822993,  // c[32]: P[12] of 37
        0.3142620078134601,  // c[33]: -Q[12] of 37
        0.07205928987611672,  // c[34]: Q[13] of 37
        0.3301590368394409,  // c[35]: -P[13] of 37
        0.17138312220807392,  // c[36]: P[14] of 37
        0.2912479292396942,  // c[37]: Q[14] of 37
        0.2979328013860101,  // c[38]: -Q[15] of 37
        0.15947907926271018,  // c[39]: -P[15] of 37
        0.10416787634306994,  // c[40]: P[16] of 37
        0.32147563578344845,  // c[41]: Q[16] of 37
        0.3368755881752301,  // c[42]: P[17] of 37
        0.026690240834250763,  // c[43]: Q[17] of 37
        0.027777777777777776,  // c[44]: 1/36
        0.1689656258416172,  // c[45]: beta of 37
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x26 = io.pair(26);
        const P x10 = io.pair(10);
        // real block of 3
        const P t0 = x26 + x10;
        const P t1 = x26 - x10;
        const P x1 = io.pair(1);
        const P t2 = t0 + x1;
        const P t3 = c[0] * t0;
        const P t4 = x1 - t3;
        const P x9 = io.pair(9);
        const P x12 = io.pair(12);
        // real block of 3
        const P t5 = x9 + x12;
        const P t6 = x9 - x12;
        const P x16 = io.pair(16);
        const P t7 = t5 + x16;
        const P t8 = c[0] * t5;
        const P t9 = x16 - t8;
        const P x33 = io.pair(33);
        const P x7 = io.pair(7);
        // real block of 3
        const P t10 = x33 + x7;
        const P t11 = x33 - x7;
        const P x34 = io.pair(34);
        const P t12 = t10 + x34;
        const P t13 = c[0] * t10;
        const P t14 = x34 - t13;
        // real block of 3
        const P t15 = t7 + t12;
        const P t16 = t7 - t12;
        const P t17 = t15 + t2;
        const P t18 = c[0] * t15;
        const P t19 = t2 - t18;
        // real block of 9, multiplier 4
        const P t20 = c[2] * t9;
        // real block of 3
        const P t21 = c[1] * t6;
        // real block of 9, multiplier 4
        const P t22 = c[3] * t21;
        const P t23 = t20 + t22;
        const P t24 = c[2] * t21;
        const P t25 = c[3] * t9;
        const P t26 = t24 - t25;
        const P t27 = c[4] * t14;
        // real block of 3
        const P t28 = c[1] * t11;
        // real block of 9, multiplier 4
        const P t29 = c[5] * t28;
        const P t30 = t27 + t29;
        const P t31 = c[5] * t14;
        const P t32 = c[4] * t28;
        const P t33 = t31 - t32;
        // complex block of 3
        const P t34 = t30 - t23;
        const P t35 = t26 + t33;
        const P t36 = t23 + t30;
        const P t37 = t26 - t33;
        const P t38 = t34 + t4;
        // real block of 3
        const P t39 = c[1] * t1;
        // complex block of 3
        const P t40 = t35 - t39;
        const P t41 = c[0] * t34;
        const P t42 = t4 - t41;
        const P t43 = c[0] * t35;
        const P t44 = t39 + t43;
        const P t45 = c[1] * t37;
        const P t46 = t42 + t45;
        const P t47 = c[1] * t36;
        const P t48 = t47 - t44;
        const P t49 = t42 - t45;
        const P t50 = t44 + t47;
        const P x29 = io.pair(29);
        const P x14 = io.pair(14);
        // real block of 3
        const P t51 = x29 + x14;
        const P t52 = x29 - x14;
        const P x31 = io.pair(31);
        const P t53 = t51 + x31;
        const P t54 = c[0] * t51;
        const P t55 = x31 - t54;
        const P x20 = io.pair(20);
        const P x2 = io.pair(2);
        // real block of 3
        const P t56 = x20 + x2;
        const P t57 = x20 - x2;
        const P x15 = io.pair(15);
        const P t58 = t56 + x15;
        const P t59 = c[0] * t56;
        const P t60 = x15 - t59;
        const P x24 = io.pair(24);
        const P x32 = io.pair(32);
        // real block of 3
        const P t61 = x24 + x32;
        const P t62 = x24 - x32;
        const P x18 = io.pair(18);
        const P t63 = t61 + x18;
        const P t64 = c[0] * t61;
        const P t65 = x18 - t64;
        // real block of 3
        const P t66 = t58 + t63;
        const P t67 = t58 - t63;
        const P t68 = t66 + t53;
        const P t69 = c[0] * t66;
        const P t70 = t53 - t69;
        // real block of 9, multiplier 4
        const P t71 = c[2] * t60;
        // real block of 3
        const P t72 = c[1] * t57;
        // real block of 9, multiplier 4
        const P t73 = c[3] * t72;
        const P t74 = t71 + t73;
        const P t75 = c[2] * t72;
        const P t76 = c[3] * t60;
        const P t77 = t75 - t76;
        const P t78 = c[4] * t65;
        // real block of 3
        const P t79 = c[1] * t62;
        // real block of 9, multiplier 4
        const P t80 = c[5] * t79;
        const P t81 = t78 + t80;
        const P t82 = c[5] * t65;
        const P t83 = c[4] * t79;
        const P t84 = t82 - t83;
        // complex block of 3
        const P t85 = t81 - t74;
        const P t86 = t77 + t84;
        const P t87 = t74 + t81;
        const P t88 = t77 - t84;
        const P t89 = t85 + t55;
        // real block of 3
        const P t90 = c[1] * t52;
        // complex block of 3
        const P t91 = t86 - t90;
        const P t92 = c[0] * t85;
        const P t93 = t55 - t92;
        const P t94 = c[0] * t86;
        const P t95 = t90 + t94;
        const P t96 = c[1] * t88;
        const P t97 = t93 + t96;
        const P t98 = c[1] * t87;
        const P t99 = t98 - t95;
        const P t100 = t93 - t96;
        const P t101 = t95 + t98;
        const P x11 = io.pair(11);
        const P x27 = io.pair(27);
        // real block of 3
        const P t102 = x11 + x27;
        const P t103 = x11 - x27;
        const P x36 = io.pair(36);
        const P t104 = t102 + x36;
        const P t105 = c[0] * t102;
        const P t106 = x36 - t105;
        const P x28 = io.pair(28);
        const P x25 = io.pair(25);
        // real block of 3
        const P t107 = x28 + x25;
        const P t108 = x28 - x25;
        const P x21 = io.pair(21);
        const P t109 = t107 + x21;
        const P t110 = c[0] * t107;
        const P t111 = x21 - t110;
        const P x4 = io.pair(4);
        const P x30 = io.pair(30);
        // real block of 3
        const P t112 = x4 + x30;
        const P t113 = x4 - x30;
        const P x3 = io.pair(3);
        const P t114 = t112 + x3;
        const P t115 = c[0] * t112;
        const P t116 = x3 - t115;
        // real block of 3
        const P t117 = t109 + t114;
        const P t118 = t109 - t114;
        const P t119 = t117 + t104;
        const P t120 = c[0] * t117;
        const P t121 = t104 - t120;
        // real block of 9, multiplier 4
        const P t122 = c[2] * t111;
        // real block of 3
        const P t123 = c[1] * t108;
        // real block of 9, multiplier 4
        const P t124 = c[3] * t123;
        const P t125 = t122 + t124;
        const P t126 = c[2] * t123;
        const P t127 = c[3] * t111;
        const P t128 = t126 - t127;
        const P t129 = c[4] * t116;
        // real block of 3
        const P t130 = c[1] * t113;
        // real block of 9, multiplier 4
        const P t131 = c[5] * t130;
        const P t132 = t129 + t131;
        const P t133 = c[5] * t116;
        const P t134 = c[4] * t130;
        const P t135 = t133 - t134;
        // complex block of 3
        const P t136 = t132 - t125;
        const P t137 = t128 + t135;
        const P t138 = t125 + t132;
        const P t139 = t128 - t135;
        const P t140 = t136 + t106;
        // real block of 3
        const P t141 = c[1] * t103;
        // complex block of 3
        const P t142 = t137 - t141;
        const P t143 = c[0] * t136;
        const P t144 = t106 - t143;
        const P t145 = c[0] * t137;
        const P t146 = t141 + t145;
        const P t147 = c[1] * t139;
        const P t148 = t144 + t147;
        const P t149 = c[1] * t138;
        const P t150 = t149 - t146;
        const P t151 = t144 - t147;
        const P t152 = t146 + t149;
        const P x8 = io.pair(8);
        const P x23 = io.pair(23);
        // real block of 3
        const P t153 = x8 + x23;
        const P t154 = x8 - x23;
        const P x6 = io.pair(6);
        const P t155 = t153 + x6;
        const P t156 = c[0] * t153;
        const P t157 = x6 - t156;
        const P x17 = io.pair(17);
        const P x35 = io.pair(35);
        // real block of 3
        const P t158 = x17 + x35;
        const P t159 = x17 - x35;
        const P x22 = io.pair(22);
        const P t160 = t158 + x22;
        const P t161 = c[0] * t158;
        const P t162 = x22 - t161;
        const P x13 = io.pair(13);
        const P x5 = io.pair(5);
        // real block of 3
        const P t163 = x13 + x5;
        const P t164 = x13 - x5;
        const P x19 = io.pair(19);
        const P t165 = t163 + x19;
        const P t166 = c[0] * t163;
        const P t167 = x19 - t166;
        // real block of 3
        const P t168 = t160 + t165;
        const P t169 = t160 - t165;
        const P t170 = t168 + t155;
        const P t171 = c[0] * t168;
        const P t172 = t155 - t171;
        // real block of 9, multiplier 4
        const P t173 = c[2] * t162;
        // real block of 3
        const P t174 = c[1] * t159;
        // real block of 9, multiplier 4
        const P t175 = c[3] * t174;
        const P t176 = t173 + t175;
        const P t177 = c[2] * t174;
        const P t178 = c[3] * t162;
        const P t179 = t177 - t178;
        const P t180 = c[4] * t167;
        // real block of 3
        const P t181 = c[1] * t164;
        // real block of 9, multiplier 4
        const P t182 = c[5] * t181;
        const P t183 = t180 + t182;
        const P t184 = c[5] * t167;
        const P t185 = c[4] * t181;
        const P t186 = t184 - t185;
        // complex block of 3
        const P t187 = t183 - t176;
        const P t188 = t179 + t186;
        const P t189 = t176 + t183;
        const P t190 = t179 - t186;
        const P t191 = t187 + t157;
        // real block of 3
        const P t192 = c[1] * t154;
        // complex block of 3
        const P t193 = t188 - t192;
        const P t194 = c[0] * t187;
        const P t195 = t157 - t194;
        const P t196 = c[0] * t188;
        const P t197 = t192 + t196;
        const P t198 = c[1] * t190;
        const P t199 = t195 + t198;
        const P t200 = c[1] * t189;
        const P t201 = t200 - t197;
        const P t202 = t195 - t198;
        const P t203 = t197 + t200;
        // real block of 2
        const P t204 = t17 + t119;
        const P t205 = t17 - t119;
        // real block of 2
        const P t206 = t68 + t170;
        const P t207 = t68 - t170;
        // real block of 2
        const P t208 = t204 + t206;
        const P t209 = t204 - t206;
        // complex block of 2
        const P t210 = t38 + t140;
        const P t211 = t40 + t142;
        const P t212 = t38 - t140;
        const P t213 = t40 - t142;
        // complex block of 2
        const P t214 = t89 + t191;
        const P t215 = t91 + t193;
        const P t216 = t89 - t191;
        const P t217 = t91 - t193;
        // complex block of 2
        const P t218 = t210 + t214;
        const P t219 = t211 + t215;
        const P t220 = t210 - t214;
        const P t221 = t211 - t215;
        // complex block of 2
        const P t222 = t212 + t217;
        const P t223 = t213 - t216;
        const P t224 = t212 - t217;
        const P t225 = t213 + t216;
        // complex block of 2
        const P t226 = t49 + t151;
        const P t227 = t50 + t152;
        const P t228 = t49 - t151;
        const P t229 = t50 - t152;
        // complex block of 2
        const P t230 = t100 + t202;
        const P t231 = t101 + t203;
        const P t232 = t100 - t202;
        const P t233 = t101 - t203;
        // complex block of 2
        const P t234 = t226 + t230;
        const P t235 = t227 + t231;
        const P t236 = t226 - t230;
        const P t237 = t227 - t231;
        // complex block of 2
        const P t238 = t228 + t233;
        const P t239 = t229 - t232;
        const P t240 = t228 - t233;
        const P t241 = t229 + t232;
        // complex block of 2
        const P t242 = t19 + t121;
        // real block of 3
        const P t243 = c[1] * t16;
        // real block of 3
        const P t244 = c[1] * t118;
        // complex block of 2
        const P t245 = t243 + t244;
        const P t246 = t19 - t121;
        const P t247 = t244 - t243;
        // complex block of 2
        const P t248 = t70 + t172;
        // real block of 3
        const P t249 = c[1] * t67;
        // real block of 3
        const P t250 = c[1] * t169;
        // complex block of 2
        const P t251 = t249 + t250;
        const P t252 = t70 - t172;
        const P t253 = t250 - t249;
        // complex block of 2
        const P t254 = t242 + t248;
        const P t255 = t245 + t251;
        const P t256 = t242 - t248;
        const P t257 = t251 - t245;
        // complex block of 2
        const P t258 = t246 + t253;
        const P t259 = t247 - t252;
        const P t260 = t246 - t253;
        const P t261 = t247 + t252;
        // complex block of 2
        const P t262 = t46 + t148;
        const P t263 = t48 + t150;
        const P t264 = t46 - t148;
        const P t265 = t48 - t150;
        // complex block of 2
        const P t266 = t97 + t199;
        const P t267 = t99 + t201;
        const P t268 = t97 - t199;
        const P t269 = t99 - t201;
        // complex block of 2
        const P t270 = t262 + t266;
        const P t271 = t263 + t267;
        const P t272 = t262 - t266;
        const P t273 = t263 - t267;
        // complex block of 2
        const P t274 = t264 + t269;
        const P t275 = t265 - t268;
        const P t276 = t264 - t269;
        const P t277 = t265 + t268;
        const P x0 = io.pair(0);
        // complex block of 37
        const P t278 = x0 + t208;
        io.pair(0, t278);
        const P t279 = c[44] * t208;
        const P t280 = x0 - t279;
        const P t281 = shuffled<1, 0>(t241);
        const P t282 = P(-c[10], c[10]) * t281;
        const P t283 = shuffled<1, 0>(t240);
        const P t284 = P(c[11], -c[11]) * t283;
        const P t285 = t282 + t284;
        const P t286 = c[11] * t281;
        const P t287 = c[10] * t283;
        const P t288 = t286 + t287;
        const P t289 = c[12] * t272;
        const P t290 = c[13] * t273;
        const P t291 = t289 + t290;
        const P t292 = c[13] * t272;
        const P t293 = c[12] * t273;
        const P t294 = t292 - t293;
        const P t295 = shuffled<1, 0>(t261);
        const P t296 = P(-c[14], c[14]) * t295;
        const P t297 = shuffled<1, 0>(t260);
        const P t298 = P(c[15], -c[15]) * t297;
        const P t299 = t296 + t298;
        const P t300 = c[15] * t295;
        const P t301 = c[14] * t297;
        const P t302 = t300 + t301;
        const P t303 = c[16] * t218;
        const P t304 = c[17] * t219;
        const P t305 = t303 - t304;
        const P t306 = c[16] * t219;
        const P t307 = c[17] * t218;
        const P t308 = t306 + t307;
        const P t309 = shuffled<1, 0>(t224);
        const P t310 = P(-c[18], c[18]) * t309;
        const P t311 = shuffled<1, 0>(t225);
        const P t312 = P(c[19], -c[19]) * t311;
        const P t313 = t310 + t312;
        const P t314 = c[18] * t311;
        const P t315 = c[19] * t309;
        const P t316 = t314 + t315;
        const P t317 = c[20] * t257;
        const P t318 = c[21] * t256;
        const P t319 = t317 - t318;
        const P t320 = c[21] * t257;
        const P t321 = c[20] * t256;
        const P t322 = t320 + t321;
        const P t323 = shuffled<1, 0>(t276);
        const P t324 = c[22] * t323;
        const P t325 = shuffled<1, 0>(t277);
        const P t326 = c[23] * t325;
        const P t327 = t324 + t326;
        const P t328 = P(-c[22], c[22]) * t325;
        const P t329 = P(c[23], -c[23]) * t323;
        const P t330 = t328 + t329;
        const P t331 = c[24] * t234;
        const P t332 = c[25] * t235;
        const P t333 = t331 - t332;
        const P t334 = c[24] * t235;
        const P t335 = c[25] * t234;
        const P t336 = t334 + t335;
        const P t337 = shuffled<1, 0>(t207);
        const P t338 = P(-c[26], c[26]) * t337;
        const P t339 = shuffled<1, 0>(t205);
        const P t340 = P(c[27], -c[27]) * t339;
        const P t341 = t338 + t340;
        const P t342 = c[27] * t337;
        const P t343 = c[26] * t339;
        const P t344 = t342 + t343;
        const P t345 = c[28] * t237;
        const P t346 = c[29] * t236;
        const P t347 = t345 - t346;
        const P t348 = c[29] * t237;
        const P t349 = c[28] * t236;
        const P t350 = t348 + t349;
        const P t351 = shuffled<1, 0>(t274);
        const P t352 = c[30] * t351;
        const P t353 = shuffled<1, 0>(t275);
        const P t354 = c[31] * t353;
        const P t355 = t352 + t354;
        const P t356 = P(-c[30], c[30]) * t353;
        const P t357 = P(c[31], -c[31]) * t351;
        const P t358 = t356 + t357;
        const P t359 = c[32] * t254;
        const P t360 = c[33] * t255;
        const P t361 = t359 - t360;
        const P t362 = c[32] * t255;
        const P t363 = c[33] * t254;
        const P t364 = t362 + t363;
        const P t365 = shuffled<1, 0>(t222);
        const P t366 = c[34] * t365;
        const P t367 = shuffled<1, 0>(t223);
        const P t368 = c[35] * t367;
        const P t369 = t366 + t368;
        const P t370 = P(-c[35], c[35]) * t365;
        const P t371 = P(c[34], -c[34]) * t367;
        const P t372 = t370 + t371;
        const P t373 = c[36] * t220;
        const P t374 = c[37] * t221;
        const P t375 = t373 + t374;
        const P t376 = c[37] * t220;
        const P t377 = c[36] * t221;
        const P t378 = t376 - t377;
        const P t379 = shuffled<1, 0>(t258);
        const P t380 = c[38] * t379;
        const P t381 = shuffled<1, 0>(t259);
        const P t382 = c[39] * t381;
        const P t383 = t380 + t382;
        const P t384 = P(-c[39], c[39]) * t379;
        const P t385 = P(c[38], -c[38]) * t381;
        const P t386 = t384 + t385;
        const P t387 = c[40] * t270;
        const P t388 = c[41] * t271;
        const P t389 = t387 - t388;
        const P t390 = c[40] * t271;
        const P t391 = c[41] * t270;
        const P t392 = t390 + t391;
        const P t393 = shuffled<1, 0>(t239);
        const P t394 = P(-c[42], c[42]) * t393;
        const P t395 = shuffled<1, 0>(t238);
        const P t396 = P(c[43], -c[43]) * t395;
        const P t397 = t394 + t396;
        const P t398 = c[43] * t393;
        const P t399 = c[42] * t395;
        const P t400 = t398 + t399;
        const P t401 = c[45] * t209;
        // spectrum block of 2
        const P t402 = t280 + t401;
        const P t403 = t280 - t401;
        // spectrum block of 2
        const P t404 = t402 + t341;
        const P t405 = t402 - t341;
        const P t406 = flipped<0, 1>(t344);
        // spectrum block of 2
        const P t407 = t403 + t406;
        const P t408 = t403 - t406;
        // complex block of 2
        const P t409 = t308 - t378;
        const P t410 = t305 + t375;
        const P t411 = t308 + t378;
        const P t412 = t305 - t375;
        const P t413 = flipped<1, 0>(t316);
        // complex block of 2
        const P t414 = t372 + t413;
        const P t415 = flipped<0, 1>(t369);
        const P t416 = t313 + t415;
        const P t417 = t372 - t413;
        const P t418 = flipped<1, 0>(t313);
        const P t419 = t369 + t418;
        // complex block of 2
        const P t420 = t409 + t414;
        const P t421 = t410 + t416;
        const P t422 = t409 - t414;
        const P t423 = t410 - t416;
        const P t424 = flipped<0, 1>(t419);
        // complex block of 2
        const P t425 = t411 + t424;
        const P t426 = t412 - t417;
        const P t427 = t411 - t424;
        const P t428 = t412 + t417;
        // complex block of 2
        const P t429 = t336 - t350;
        const P t430 = t333 + t347;
        const P t431 = t336 + t350;
        const P t432 = t333 - t347;
        // complex block of 2
        const P t433 = t400 + t288;
        const P t434 = t397 + t285;
        const P t435 = shuffled<0, 3>(t400, t288);
        const P t436 = shuffled<0, 3>(t288, t400);
        const P t437 = t435 - t436;
        const P t438 = t397 - t285;
        const P t439 = flipped<0, 1>(t433);
        // complex block of 2
        const P t440 = t429 + t439;
        const P t441 = t430 + t434;
        const P t442 = t429 - t439;
        const P t443 = t430 - t434;
        // complex block of 2
        const P t444 = t431 + t438;
        const P t445 = t432 - t437;
        const P t446 = t431 - t438;
        const P t447 = t432 + t437;
        // complex block of 2
        const P t448 = t364 + t322;
        const P t449 = t361 + t319;
        const P t450 = t322 - t364;
        const P t451 = t361 - t319;
        const P t452 = flipped<1, 0>(t386);
        // complex block of 2
        const P t453 = t452 + t302;
        const P t454 = flipped<1, 0>(t383);
        const P t455 = t454 + t299;
        const P t456 = t302 - t452;
        const P t457 = flipped<0, 1>(t299);
        const P t458 = t383 + t457;
        const P t459 = flipped<1, 0>(t448);
        // complex block of 2
        const P t460 = t459 + t453;
        const P t461 = t449 + t455;
        const P t462 = t453 - t459;
        const P t463 = t449 - t455;
        const P t464 = flipped<1, 0>(t458);
        // complex block of 2
        const P t465 = t450 + t464;
        const P t466 = flipped<0, 1>(t456);
        const P t467 = t451 + t466;
        const P t468 = t450 - t464;
        const P t469 = t451 - t466;
        // complex block of 2
        const P t470 = t392 - t294;
        const P t471 = t389 + t291;
        const P t472 = t392 + t294;
        const P t473 = t389 - t291;
        // complex block of 2
        const P t474 = t330 - t358;
        const P t475 = shuffled<0, 3>(t355, t327);
        const P t476 = shuffled<0, 3>(t327, t355);
        const P t477 = t475 - t476;
        const P t478 = t358 + t330;
        const P t479 = t355 + t327;
        // complex block of 2
        const P t480 = t470 + t474;
        const P t481 = t471 + t477;
        const P t482 = t470 - t474;
        const P t483 = t471 - t477;
        const P t484 = flipped<0, 1>(t479);
        // complex block of 2
        const P t485 = t472 + t484;
        const P t486 = t473 + t478;
        const P t487 = t472 - t484;
        const P t488 = t473 - t478;
        // spectrum block of 3
        const P t489 = t461 + t404;
        const P t490 = c[0] * t461;
        const P t491 = t404 - t490;
        const P t492 = P(-c[1], c[1]) * t460;
        const P t493 = t491 + t492;
        const P t494 = t491 - t492;
        // complex block of 3
        const P t495 = t480 - t440;
        const P t496 = t481 + t441;
        const P t497 = t480 + t440;
        const P t498 = t481 - t441;
        const P t499 = t495 + t420;
        const P t500 = t496 + t421;
        const P t501 = c[0] * t495;
        const P t502 = t420 - t501;
        const P t503 = c[0] * t496;
        const P t504 = t421 - t503;
        const P t505 = c[1] * t498;
        const P t506 = t502 + t505;
        const P t507 = c[1] * t497;
        const P t508 = t504 - t507;
        const P t509 = t502 - t505;
        const P t510 = t504 + t507;
        // spectrum block of 9, multiplier 4
        const P t511 = c[2] * t508;
        const P t512 = c[3] * t506;
        const P t513 = t511 + t512;
        const P t514 = c[4] * t510;
        const P t515 = c[5] * t509;
        const P t516 = t514 + t515;
        // spectrum block of 3
        const P t517 = t500 + t489;
        io.pair(1, t517);
        const P t518 = c[0] * t500;
        const P t519 = t489 - t518;
        const P t520 = c[1] * t499;
        const P t521 = t519 - t520;
        io.pair(10, t521);
        const P t522 = t519 + t520;
        io.pair(26, t522);
        // spectrum block of 3
        const P t523 = t493 - t513;
        io.pair(7, t523);
        const P t524 = c[0] * t513;
        const P t525 = t524 + t493;
        const P t526 = c[6] * t508;
        const P t527 = c[7] * t506;
        const P t528 = t526 - t527;
        const P t529 = t525 - t528;
        io.pair(33, t529);
        const P t530 = t525 + t528;
        io.pair(34, t530);
        // spectrum block of 3
        const P t531 = t516 + t494;
        io.pair(12, t531);
        const P t532 = c[0] * t516;
        const P t533 = t494 - t532;
        const P t534 = c[8] * t509;
        const P t535 = c[9] * t510;
        const P t536 = t534 - t535;
        const P t537 = t533 - t536;
        io.pair(9, t537);
        const P t538 = t533 + t536;
        io.pair(16, t538);
        // spectrum block of 3
        const P t539 = t467 + t407;
        const P t540 = c[0] * t467;
        const P t541 = t407 - t540;
        const P t542 = c[1] * t465;
        const P t543 = t541 - t542;
        const P t544 = t541 + t542;
        // complex block of 3
        const P t545 = t485 - t444;
        const P t546 = t486 + t445;
        const P t547 = t485 + t444;
        const P t548 = t486 - t445;
        const P t549 = t545 + t425;
        const P t550 = t546 + t426;
        const P t551 = c[0] * t545;
        const P t552 = t425 - t551;
        const P t553 = c[0] * t546;
        const P t554 = t426 - t553;
        const P t555 = c[1] * t548;
        const P t556 = t552 + t555;
        const P t557 = c[1] * t547;
        const P t558 = t554 - t557;
        const P t559 = t552 - t555;
        const P t560 = t554 + t557;
        // spectrum block of 9, multiplier 4
        const P t561 = c[2] * t558;
        const P t562 = c[3] * t556;
        const P t563 = t561 + t562;
        const P t564 = c[4] * t560;
        const P t565 = c[5] * t559;
        const P t566 = t564 + t565;
        // spectrum block of 3
        const P t567 = t550 + t539;
        io.pair(6, t567);
        const P t568 = c[0] * t550;
        const P t569 = t539 - t568;
        const P t570 = c[1] * t549;
        const P t571 = t569 - t570;
        io.pair(23, t571);
        const P t572 = t569 + t570;
        io.pair(8, t572);
        // spectrum block of 3
        const P t573 = t543 - t563;
        io.pair(5, t573);
        const P t574 = c[0] * t563;
        const P t575 = t574 + t543;
        const P t576 = c[6] * t558;
        const P t577 = c[7] * t556;
        const P t578 = t576 - t577;
        const P t579 = t575 - t578;
        io.pair(13, t579);
        const P t580 = t575 + t578;
        io.pair(19, t580);
        // spectrum block of 3
        const P t581 = t566 + t544;
        io.pair(35, t581);
        const P t582 = c[0] * t566;
        const P t583 = t544 - t582;
        const P t584 = c[8] * t559;
        const P t585 = c[9] * t560;
        const P t586 = t584 - t585;
        const P t587 = t583 - t586;
        io.pair(17, t587);
        const P t588 = t583 + t586;
        io.pair(22, t588);
        // spectrum block of 3
        const P t589 = t463 + t405;
        const P t590 = c[0] * t463;
        const P t591 = t405 - t590;
        const P t592 = P(c[1], -c[1]) * t462;
        const P t593 = t591 + t592;
        const P t594 = t591 - t592;
        // complex block of 3
        const P t595 = t482 - t442;
        const P t596 = t483 + t443;
        const P t597 = t482 + t442;
        const P t598 = t483 - t443;
        const P t599 = t595 + t422;
        const P t600 = t596 + t423;
        const P t601 = c[0] * t595;
        const P t602 = t422 - t601;
        const P t603 = c[0] * t596;
        const P t604 = t423 - t603;
        const P t605 = c[1] * t598;
        const P t606 = t602 + t605;
        const P t607 = c[1] * t597;
        const P t608 = t604 - t607;
        const P t609 = t602 - t605;
        const P t610 = t604 + t607;
        // spectrum block of 9, multiplier 4
        const P t611 = c[2] * t608;
        const P t612 = c[3] * t606;
        const P t613 = t611 + t612;
        const P t614 = c[4] * t610;
        const P t615 = c[5] * t609;
        const P t616 = t614 + t615;
        // spectrum block of 3
        const P t617 = t600 + t589;
        io.pair(36, t617);
        const P t618 = c[0] * t600;
        const P t619 = t589 - t618;
        const P t620 = c[1] * t599;
        const P t621 = t619 - t620;
        io.pair(27, t621);
        const P t622 = t619 + t620;
        io.pair(11, t622);
        // spectrum block of 3
        const P t623 = t593 - t613;
        io.pair(30, t623);
        const P t624 = c[0] * t613;
        const P t625 = t624 + t593;
        const P t626 = c[6] * t608;
        const P t627 = c[7] * t606;
        const P t628 = t626 - t627;
        const P t629 = t625 - t628;
        io.pair(4, t629);
        const P t630 = t625 + t628;
        io.pair(3, t630);
        // spectrum block of 3
        const P t631 = t616 + t594;
        io.pair(25, t631);
        const P t632 = c[0] * t616;
        const P t633 = t594 - t632;
        const P t634 = c[8] * t609;
        const P t635 = c[9] * t610;
        const P t636 = t634 - t635;
        const P t637 = t633 - t636;
        io.pair(28, t637);
        const P t638 = t633 + t636;
        io.pair(21, t638);
        // spectrum block of 3
        const P t639 = t469 + t408;
        const P t640 = c[0] * t469;
        const P t641 = t408 - t640;
        const P t642 = c[1] * t468;
        const P t643 = t641 - t642;
        const P t644 = t641 + t642;
        // complex block of 3
        const P t645 = t487 - t446;
        const P t646 = t488 + t447;
        const P t647 = t487 + t446;
        const P t648 = t488 - t447;
        const P t649 = t645 + t427;
        const P t650 = t646 + t428;
        const P t651 = c[0] * t645;
        const P t652 = t427 - t651;
        const P t653 = c[0] * t646;
        const P t654 = t428 - t653;
        const P t655 = c[1] * t648;
        const P t656 = t652 + t655;
        const P t657 = c[1] * t647;
        const P t658 = t654 - t657;
        const P t659 = t652 - t655;
        const P t660 = t654 + t657;
        // spectrum block of 9, multiplier 4
        const P t661 = c[2] * t658;
        const P t662 = c[3] * t656;
        const P t663 = t661 + t662;
        const P t664 = c[4] * t660;
        const P t665 = c[5] * t659;
        const P t666 = t664 + t665;
        // spectrum block of 3
        const P t667 = t650 + t639;
        io.pair(31, t667);
        const P t668 = c[0] * t650;
        const P t669 = t639 - t668;
        const P t670 = c[1] * t649;
        const P t671 = t669 - t670;
        io.pair(14, t671);
        const P t672 = t669 + t670;
        io.pair(29, t672);
        // spectrum block of 3
        const P t673 = t643 - t663;
        io.pair(32, t673);
        const P t674 = c[0] * t663;
        const P t675 = t674 + t643;
        const P t676 = c[6] * t658;
        const P t677 = c[7] * t656;
        const P t678 = t676 - t677;
        const P t679 = t675 - t678;
        io.pair(24, t679);
        const P t680 = t675 + t678;
        io.pair(18, t680);
        // spectrum block of 3
        const P t681 = t666 + t644;
        io.pair(2, t681);
        const P t682 = c[0] * t666;
        const P t683 = t644 - t682;
        const P t684 = c[8] * t659;
        const P t685 = c[9] * t660;
        const P t686 = t684 - t685;
        const P t687 = t683 - t686;
        io.pair(20, t687);
        const P t688 = t683 + t686;
        io.pair(15, t688);
    }
};

}  // namespace zulg
