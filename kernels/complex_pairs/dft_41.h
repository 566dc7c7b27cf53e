// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 41.
// Complex DFT of 41 points, Rader block; one complex number to a register.
// 271 sums, 211 differences, 228 products of registers, which do the 1494 steps of the graph, those with
// `scale` included; 32 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<41> {
    static constexpr int steps = 1494;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
        0.2620989421184033,  // c[5]: -P[1] of 41
        0.1838590344269595,  // c[6]: Q[1] of 41
        0.29985325557547343,  // c[7]: P[2] of 41
        0.11219636857220389,  // c[8]: Q[2] of 41
        0.08656031809698493,  // c[9]: -P[3] of 41
        0.30823256046522535,  // c[10]: Q[3] of 41
        0.3174404534558256,  // c[11]: P[4] of 41
        0.04161199958857812,  // c[12]: Q[4] of 41
        0.2933028207344136,  // c[13]: Q[5] of 41
        0.12834895928380738,  // c[14]: -P[5] of 41
        0.31967734584865853,  // c[15]: P[6] of 41
        0.017504129545828598,  // c[16]: -Q[6] of 41
        0.31908428543576123,  // c[17]: -Q[7] of 41
        0.026176684051836208,  // c[18]: -P[7] of 41
        0.08921572340206974,  // c[19]: P[8] of 41
        0.3074744781243565,  // c[20]: Q[8] of 41
        0.05419385685994486,  // c[21]: -Q[9] of 41
        0.3155360928303509,  // c[22]: -P[9] of 41
        0.10597392847320843,  // c[23]: -P[10] of 41
        0.30210846807720454,  // c[24]: -Q[10] of 41
        0.0731522471449556,  // c[25]: -Q[11] of 41
        0.3116869402744416,  // c[26]: P[11] of 41
        0.2710001778953512,  // c[27]: -P[12] of 41
        0.17046672279564715,  // c[28]: -Q[12] of 41
        0.27149319974882274,  // c[29]: Q[13] of 41
        0.16968041280638677,  // c[30]: -P[13] of 41
        0.09523405704741086,  // c[31]: P[14] of 41
        0.30566398933844086,  // c[32]: Q[14] of 41
        0.3192532441835867,  // c[33]: P[15] of 41
        0.024028443109264917,  // c[34]: Q[15] of 41
        0.3186016615741431,  // c[35]: P[16] of 41
        0.03151160488130023,  // c[36]: Q[16] of 41
        0.21192383863816136,  // c[37]: -Q[17] of 41
        0.2399755958777195,  // c[38]: P[17] of 41
        0.24179459418352547,  // c[39]: -Q[18] of 41
        0.20984607269049432,  // c[40]: -P[18] of 41
        0.26991254618698857,  // c[41]: -Q[19] of 41
        0.17218367347358104,  // c[42]: -P[19] of 41
        0.025,  // c[43]: 1/40
        0.16007810593582122,  // c[44]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x40 = io.pair(40);
        // real block of 2
        const P t0 = x1 + x40;
        const P t1 = x1 - x40;
        const P x27 = io.pair(27);
        const P x14 = io.pair(14);
        // real block of 2
        const P t2 = x27 + x14;
        const P t3 = x27 - x14;
        const P x32 = io.pair(32);
        const P x9 = io.pair(9);
        // real block of 2
        const P t4 = x32 + x9;
        const P t5 = x32 - x9;
        const P x3 = io.pair(3);
        const P x38 = io.pair(38);
        // real block of 2
        const P t6 = x3 + x38;
        const P t7 = x3 - x38;
        // real block of 2
        const P t8 = t0 + t4;
        const P t9 = t0 - t4;
        // real block of 2
        const P t10 = t2 + t6;
        const P t11 = t2 - t6;
        // real block of 2
        const P t12 = t8 + t10;
        const P t13 = t8 - t10;
        // skew block of 4, multiplier 5
        const P t14 = t3 - t7;
        const P t15 = t3 + t7;
        const P t16 = c[4] * t15;
        const P t17 = t16 - t5;
        const P t18 = c[4] * t14;
        const P t19 = t1 + t18;
        const P t20 = t5 + t16;
        const P t21 = t1 - t18;
        const P x10 = io.pair(10);
        const P x31 = io.pair(31);
        // real block of 2
        const P t22 = x10 + x31;
        const P t23 = x10 - x31;
        const P x24 = io.pair(24);
        const P x17 = io.pair(17);
        // real block of 2
        const P t24 = x24 + x17;
        const P t25 = x24 - x17;
        const P x33 = io.pair(33);
        const P x8 = io.pair(8);
        // real block of 2
        const P t26 = x33 + x8;
        const P t27 = x33 - x8;
        const P x30 = io.pair(30);
        const P x11 = io.pair(11);
        // real block of 2
        const P t28 = x30 + x11;
        const P t29 = x30 - x11;
        // real block of 2
        const P t30 = t22 + t26;
        const P t31 = t22 - t26;
        // real block of 2
        const P t32 = t24 + t28;
        const P t33 = t24 - t28;
        // real block of 2
        const P t34 = t30 + t32;
        const P t35 = t30 - t32;
        // skew block of 4, multiplier 5
        const P t36 = t25 - t29;
        const P t37 = t25 + t29;
        const P t38 = c[4] * t37;
        const P t39 = t38 - t27;
        const P t40 = c[4] * t36;
        const P t41 = t23 + t40;
        const P t42 = t27 + t38;
        const P t43 = t23 - t40;
        const P x18 = io.pair(18);
        const P x23 = io.pair(23);
        // real block of 2
        const P t44 = x18 + x23;
        const P t45 = x18 - x23;
        const P x35 = io.pair(35);
        const P x6 = io.pair(6);
        // real block of 2
        const P t46 = x35 + x6;
        const P t47 = x35 - x6;
        const P x2 = io.pair(2);
        const P x39 = io.pair(39);
        // real block of 2
        const P t48 = x2 + x39;
        const P t49 = x2 - x39;
        const P x13 = io.pair(13);
        const P x28 = io.pair(28);
        // real block of 2
        const P t50 = x13 + x28;
        const P t51 = x13 - x28;
        // real block of 2
        const P t52 = t44 + t48;
        const P t53 = t44 - t48;
        // real block of 2
        const P t54 = t46 + t50;
        const P t55 = t46 - t50;
        // real block of 2
        const P t56 = t52 + t54;
        const P t57 = t52 - t54;
        // skew block of 4, multiplier 5
        const P t58 = t47 - t51;
        const P t59 = t47 + t51;
        const P t60 = c[4] * t59;
        const P t61 = t60 - t49;
        const P t62 = c[4] * t58;
        const P t63 = t45 + t62;
        const P t64 = t49 + t60;
        const P t65 = t45 - t62;
        const P x16 = io.pair(16);
        const P x25 = io.pair(25);
        // real block of 2
        const P t66 = x16 + x25;
        const P t67 = x16 - x25;
        const P x22 = io.pair(22);
        const P x19 = io.pair(19);
        // real block of 2
        const P t68 = x22 + x19;
        const P t69 = x22 - x19;
        const P x20 = io.pair(20);
        const P x21 = io.pair(21);
        // real block of 2
        const P t70 = x20 + x21;
        const P t71 = x20 - x21;
        const P x7 = io.pair(7);
        const P x34 = io.pair(34);
        // real block of 2
        const P t72 = x7 + x34;
        const P t73 = x7 - x34;
        // real block of 2
        const P t74 = t66 + t70;
        const P t75 = t66 - t70;
        // real block of 2
        const P t76 = t68 + t72;
        const P t77 = t68 - t72;
        // real block of 2
        const P t78 = t74 + t76;
        const P t79 = t74 - t76;
        // skew block of 4, multiplier 5
        const P t80 = t69 - t73;
        const P t81 = t69 + t73;
        const P t82 = c[4] * t81;
        const P t83 = t82 - t71;
        const P t84 = c[4] * t80;
        const P t85 = t67 + t84;
        const P t86 = t71 + t82;
        const P t87 = t67 - t84;
        const P x37 = io.pair(37);
        const P x4 = io.pair(4);
        // real block of 2
        const P t88 = x37 + x4;
        const P t89 = x37 - x4;
        const P x15 = io.pair(15);
        const P x26 = io.pair(26);
        // real block of 2
        const P t90 = x15 + x26;
        const P t91 = x15 - x26;
        const P x36 = io.pair(36);
        const P x5 = io.pair(5);
        // real block of 2
        const P t92 = x36 + x5;
        const P t93 = x36 - x5;
        const P x29 = io.pair(29);
        const P x12 = io.pair(12);
        // real block of 2
        const P t94 = x29 + x12;
        const P t95 = x29 - x12;
        // real block of 2
        const P t96 = t88 + t92;
        const P t97 = t88 - t92;
        // real block of 2
        const P t98 = t90 + t94;
        const P t99 = t90 - t94;
        // real block of 2
        const P t100 = t96 + t98;
        const P t101 = t96 - t98;
        // skew block of 4, multiplier 5
        const P t102 = t91 - t95;
        const P t103 = t91 + t95;
        const P t104 = c[4] * t103;
        const P t105 = t104 - t93;
        const P t106 = c[4] * t102;
        const P t107 = t89 + t106;
        const P t108 = t93 + t104;
        const P t109 = t89 - t106;
        // real block of 5, multiplier 3
        const P t110 = t34 + t100;
        const P t111 = t34 - t100;
        const P t112 = t78 + t56;
        const P t113 = t78 - t56;
        const P t114 = t110 + t112;
        const P t115 = t114 + t12;
        const P t116 = c[0] * t110;
        const P t117 = t12 - t116;
        const P t118 = c[1] * t112;
        const P t119 = t117 + t118;
        const P t120 = c[2] * t111;
        const P t121 = c[3] * t113;
        const P t122 = t120 + t121;
        const P t123 = c[1] * t110;
        const P t124 = c[0] * t112;
        const P t125 = t123 - t124;
        const P t126 = t125 + t12;
        const P t127 = c[2] * t113;
        const P t128 = c[3] * t111;
        const P t129 = t127 - t128;
        // complex block of 5, multiplier 3
        const P t130 = t43 + t109;
        const P t131 = t39 + t105;
        const P t132 = t43 - t109;
        const P t133 = t39 - t105;
        const P t134 = t87 + t65;
        const P t135 = t83 + t61;
        const P t136 = t87 - t65;
        const P t137 = t83 - t61;
        const P t138 = t130 + t134;
        const P t139 = t131 + t135;
        const P t140 = t138 + t21;
        const P t141 = t139 + t17;
        const P t142 = c[1] * t130;
        const P t143 = c[0] * t134;
        const P t144 = t142 - t143;
        const P t145 = t144 + t21;
        const P t146 = c[1] * t131;
        const P t147 = c[0] * t135;
        const P t148 = t146 - t147;
        const P t149 = t148 + t17;
        const P t150 = c[3] * t132;
        const P t151 = c[2] * t136;
        const P t152 = t150 - t151;
        const P t153 = c[3] * t133;
        const P t154 = c[2] * t137;
        const P t155 = t153 - t154;
        const P t156 = t145 + t155;
        const P t157 = t149 - t152;
        const P t158 = t145 - t155;
        const P t159 = t149 + t152;
        const P t160 = c[0] * t130;
        const P t161 = t21 - t160;
        const P t162 = c[1] * t134;
        const P t163 = t161 + t162;
        const P t164 = c[0] * t131;
        const P t165 = t17 - t164;
        const P t166 = c[1] * t135;
        const P t167 = t165 + t166;
        const P t168 = c[2] * t132;
        const P t169 = c[3] * t136;
        const P t170 = t168 + t169;
        const P t171 = c[2] * t133;
        const P t172 = c[3] * t137;
        const P t173 = t171 + t172;
        const P t174 = t163 + t173;
        const P t175 = t167 - t170;
        const P t176 = t163 - t173;
        const P t177 = t167 + t170;
        // complex block of 5, multiplier 3
        const P t178 = t31 + t97;
        const P t179 = t33 + t99;
        const P t180 = t31 - t97;
        const P t181 = t99 - t33;
        const P t182 = t75 + t53;
        const P t183 = t77 + t55;
        const P t184 = t75 - t53;
        const P t185 = t55 - t77;
        const P t186 = t178 + t182;
        const P t187 = t179 + t183;
        const P t188 = t186 + t9;
        const P t189 = t187 + t11;
        const P t190 = c[1] * t178;
        const P t191 = c[0] * t182;
        const P t192 = t190 - t191;
        const P t193 = t192 + t9;
        const P t194 = c[1] * t179;
        const P t195 = t11 + t194;
        const P t196 = c[0] * t183;
        const P t197 = t196 - t195;
        const P t198 = c[3] * t180;
        const P t199 = c[2] * t184;
        const P t200 = t198 - t199;
        const P t201 = c[3] * t181;
        const P t202 = c[2] * t185;
        const P t203 = t201 - t202;
        const P t204 = t193 + t203;
        const P t205 = t197 - t200;
        const P t206 = t193 - t203;
        const P t207 = t197 + t200;
        const P t208 = c[0] * t178;
        const P t209 = t9 - t208;
        const P t210 = c[1] * t182;
        const P t211 = t209 + t210;
        const P t212 = c[0] * t179;
        const P t213 = c[1] * t183;
        const P t214 = t212 - t213;
        const P t215 = t214 - t11;
        const P t216 = c[2] * t180;
        const P t217 = c[3] * t184;
        const P t218 = t216 + t217;
        const P t219 = c[2] * t181;
        const P t220 = c[3] * t185;
        const P t221 = t219 + t220;
        const P t222 = t211 + t221;
        const P t223 = t215 - t218;
        const P t224 = t211 - t221;
        const P t225 = t215 + t218;
        // complex block of 5, multiplier 3
        const P t226 = t41 + t107;
        const P t227 = t42 + t108;
        const P t228 = t41 - t107;
        const P t229 = t42 - t108;
        const P t230 = t85 + t63;
        const P t231 = t86 + t64;
        const P t232 = t85 - t63;
        const P t233 = t86 - t64;
        const P t234 = t226 + t230;
        const P t235 = t227 + t231;
        const P t236 = t234 + t19;
        const P t237 = t235 + t20;
        const P t238 = c[1] * t226;
        const P t239 = c[0] * t230;
        const P t240 = t238 - t239;
        const P t241 = t240 + t19;
        const P t242 = c[1] * t227;
        const P t243 = c[0] * t231;
        const P t244 = t242 - t243;
        const P t245 = t244 + t20;
        const P t246 = c[3] * t228;
        const P t247 = c[2] * t232;
        const P t248 = t246 - t247;
        const P t249 = c[3] * t229;
        const P t250 = c[2] * t233;
        const P t251 = t249 - t250;
        const P t252 = t241 + t251;
        const P t253 = t245 - t248;
        const P t254 = t241 - t251;
        const P t255 = t245 + t248;
        const P t256 = c[0] * t226;
        const P t257 = t19 - t256;
        const P t258 = c[1] * t230;
        const P t259 = t257 + t258;
        const P t260 = c[0] * t227;
        const P t261 = t20 - t260;
        const P t262 = c[1] * t231;
        const P t263 = t261 + t262;
        const P t264 = c[2] * t228;
        const P t265 = c[3] * t232;
        const P t266 = t264 + t265;
        const P t267 = c[2] * t229;
        const P t268 = c[3] * t233;
        const P t269 = t267 + t268;
        const P t270 = t259 + t269;
        const P t271 = t263 - t266;
        const P t272 = t259 - t269;
        const P t273 = t263 + t266;
        // real block of 5, multiplier 3
        const P t274 = t35 + t101;
        const P t275 = t35 - t101;
        const P t276 = t79 + t57;
        const P t277 = t79 - t57;
        const P t278 = t274 + t276;
        const P t279 = t278 + t13;
        const P t280 = c[0] * t274;
        const P t281 = t13 - t280;
        const P t282 = c[1] * t276;
        const P t283 = t281 + t282;
        const P t284 = c[2] * t275;
        const P t285 = c[3] * t277;
        const P t286 = t284 + t285;
        const P t287 = c[1] * t274;
        const P t288 = c[0] * t276;
        const P t289 = t287 - t288;
        const P t290 = t289 + t13;
        const P t291 = c[2] * t277;
        const P t292 = c[3] * t275;
        const P t293 = t291 - t292;
        const P x0 = io.pair(0);
        // complex block of 41
        const P t294 = x0 + t115;
        io.pair(0, t294);
        const P t295 = c[43] * t115;
        const P t296 = x0 - t295;
        const P t297 = shuffled<1, 0>(t255);
        const P t298 = P(-c[5], c[5]) * t297;
        const P t299 = shuffled<1, 0>(t254);
        const P t300 = P(c[6], -c[6]) * t299;
        const P t301 = t298 + t300;
        const P t302 = c[6] * t297;
        const P t303 = c[5] * t299;
        const P t304 = t302 + t303;
        const P t305 = c[7] * t222;
        const P t306 = c[8] * t223;
        const P t307 = t305 - t306;
        const P t308 = c[7] * t223;
        const P t309 = c[8] * t222;
        const P t310 = t308 + t309;
        const P t311 = shuffled<1, 0>(t175);
        const P t312 = P(-c[9], c[9]) * t311;
        const P t313 = shuffled<1, 0>(t174);
        const P t314 = P(c[10], -c[10]) * t313;
        const P t315 = t312 + t314;
        const P t316 = c[10] * t311;
        const P t317 = c[9] * t313;
        const P t318 = t316 + t317;
        const P t319 = c[11] * t290;
        const P t320 = c[12] * t293;
        const P t321 = t319 + t320;
        const P t322 = c[12] * t290;
        const P t323 = c[11] * t293;
        const P t324 = t322 - t323;
        const P t325 = shuffled<1, 0>(t140);
        const P t326 = c[13] * t325;
        const P t327 = shuffled<1, 0>(t141);
        const P t328 = c[14] * t327;
        const P t329 = t326 + t328;
        const P t330 = P(-c[14], c[14]) * t325;
        const P t331 = P(c[13], -c[13]) * t327;
        const P t332 = t330 + t331;
        const P t333 = c[15] * t206;
        const P t334 = c[16] * t207;
        const P t335 = t333 - t334;
        const P t336 = c[15] * t207;
        const P t337 = c[16] * t206;
        const P t338 = t336 + t337;
        const P t339 = shuffled<1, 0>(t270);
        const P t340 = P(-c[17], c[17]) * t339;
        const P t341 = shuffled<1, 0>(t271);
        const P t342 = P(c[18], -c[18]) * t341;
        const P t343 = t340 + t342;
        const P t344 = c[17] * t341;
        const P t345 = c[18] * t339;
        const P t346 = t344 + t345;
        const P t347 = c[19] * t119;
        const P t348 = c[20] * t122;
        const P t349 = t347 - t348;
        const P t350 = c[19] * t122;
        const P t351 = c[20] * t119;
        const P t352 = t350 + t351;
        const P t353 = shuffled<1, 0>(t252);
        const P t354 = c[21] * t353;
        const P t355 = shuffled<1, 0>(t253);
        const P t356 = c[22] * t355;
        const P t357 = t354 + t356;
        const P t358 = P(-c[22], c[22]) * t353;
        const P t359 = P(c[21], -c[21]) * t355;
        const P t360 = t358 + t359;
        const P t361 = c[23] * t188;
        const P t362 = c[24] * t189;
        const P t363 = t361 + t362;
        const P t364 = c[23] * t189;
        const P t365 = c[24] * t188;
        const P t366 = t364 - t365;
        const P t367 = shuffled<1, 0>(t158);
        const P t368 = P(-c[25], c[25]) * t367;
        const P t369 = shuffled<1, 0>(t159);
        const P t370 = P(c[26], -c[26]) * t369;
        const P t371 = t368 + t370;
        const P t372 = c[25] * t369;
        const P t373 = c[26] * t367;
        const P t374 = t372 + t373;
        const P t375 = c[27] * t283;
        const P t376 = c[28] * t286;
        const P t377 = t375 + t376;
        const P t378 = c[27] * t286;
        const P t379 = c[28] * t283;
        const P t380 = t378 - t379;
        const P t381 = shuffled<1, 0>(t176);
        const P t382 = c[29] * t381;
        const P t383 = shuffled<1, 0>(t177);
        const P t384 = c[30] * t383;
        const P t385 = t382 + t384;
        const P t386 = P(-c[30], c[30]) * t381;
        const P t387 = P(c[29], -c[29]) * t383;
        const P t388 = t386 + t387;
        const P t389 = c[31] * t204;
        const P t390 = c[32] * t205;
        const P t391 = t389 + t390;
        const P t392 = c[32] * t204;
        const P t393 = c[31] * t205;
        const P t394 = t392 - t393;
        const P t395 = shuffled<1, 0>(t237);
        const P t396 = P(-c[33], c[33]) * t395;
        const P t397 = shuffled<1, 0>(t236);
        const P t398 = P(c[34], -c[34]) * t397;
        const P t399 = t396 + t398;
        const P t400 = c[34] * t395;
        const P t401 = c[33] * t397;
        const P t402 = t400 + t401;
        const P t403 = c[35] * t126;
        const P t404 = c[36] * t129;
        const P t405 = t403 - t404;
        const P t406 = c[35] * t129;
        const P t407 = c[36] * t126;
        const P t408 = t406 + t407;
        const P t409 = shuffled<1, 0>(t272);
        const P t410 = P(-c[37], c[37]) * t409;
        const P t411 = shuffled<1, 0>(t273);
        const P t412 = P(c[38], -c[38]) * t411;
        const P t413 = t410 + t412;
        const P t414 = c[37] * t411;
        const P t415 = c[38] * t409;
        const P t416 = t414 + t415;
        const P t417 = c[39] * t225;
        const P t418 = c[40] * t224;
        const P t419 = t417 - t418;
        const P t420 = c[40] * t225;
        const P t421 = c[39] * t224;
        const P t422 = t420 + t421;
        const P t423 = shuffled<1, 0>(t156);
        const P t424 = c[41] * t423;
        const P t425 = shuffled<1, 0>(t157);
        const P t426 = c[42] * t425;
        const P t427 = t424 + t426;
        const P t428 = P(-c[42], c[42]) * t423;
        const P t429 = P(c[41], -c[41]) * t425;
        const P t430 = t428 + t429;
        // complex block of 5, multiplier 3
        const P t431 = t416 + t346;
        const V t432 = part<0>(t402);
        const P t433 = c[1] * t431;
        const V t434 = part<0>(t433);
        const V t435 = t432 - t434;
        const P t436 = flipped<1, 0>(t360);
        const P t437 = t304 + t436;
        const P t438 = c[0] * t431;
        const V t439 = part<0>(t438);
        const V t440 = part<0>(t437);
        const V t441 = c[1] * t440;
        const V t442 = t439 + t441;
        // spectrum block of 5, multiplier 3
        const P t443 = t349 + t405;
        const P t444 = t443 + t296;
        const P t445 = c[1] * t349;
        const P t446 = c[0] * t405;
        const P t447 = t445 - t446;
        const P t448 = t447 + t296;
        const P t449 = c[3] * t352;
        const P t450 = c[2] * t408;
        const P t451 = t449 + t450;
        const P t452 = t448 - t451;
        const P t453 = t448 + t451;
        const P t454 = c[0] * t349;
        const P t455 = t296 - t454;
        const P t456 = c[1] * t405;
        const P t457 = t455 + t456;
        const P t458 = c[2] * t352;
        const P t459 = c[3] * t408;
        const P t460 = t458 - t459;
        const P t461 = t457 - t460;
        const P t462 = t457 + t460;
        const P t463 = flipped<0, 1>(t318);
        // complex block of 5, multiplier 3
        const P t464 = t388 + t463;
        const P t465 = flipped<0, 1>(t385);
        const P t466 = t315 + t465;
        const P t467 = t388 - t463;
        const P t468 = flipped<1, 0>(t315);
        const P t469 = t385 + t468;
        const P t470 = flipped<0, 1>(t430);
        const P t471 = t374 + t470;
        const P t472 = flipped<1, 0>(t427);
        const P t473 = t371 + t472;
        const P t474 = flipped<1, 0>(t374);
        const P t475 = t474 + t430;
        const P t476 = t371 - t472;
        const P t477 = flipped<1, 0>(t471);
        const P t478 = t464 + t477;
        const P t479 = t466 + t473;
        const P t480 = t478 + t332;
        const P t481 = flipped<0, 1>(t329);
        const P t482 = t479 + t481;
        const P t483 = c[1] * t464;
        const P t484 = P(c[0], -c[0]) * t471;
        const P t485 = t483 + t484;
        const P t486 = t485 + t332;
        const P t487 = c[1] * t466;
        const P t488 = c[0] * t473;
        const P t489 = t487 - t488;
        const P t490 = t489 + t481;
        const P t491 = c[3] * t467;
        const P t492 = c[2] * t475;
        const P t493 = t491 - t492;
        const P t494 = c[3] * t469;
        const P t495 = P(-c[2], c[2]) * t476;
        const P t496 = t494 + t495;
        const P t497 = flipped<0, 1>(t496);
        const P t498 = t486 + t497;
        const P t499 = t490 - t493;
        const P t500 = t486 - t497;
        const P t501 = t490 + t493;
        const P t502 = c[0] * t464;
        const P t503 = t332 - t502;
        const P t504 = P(-c[1], c[1]) * t471;
        const P t505 = t503 + t504;
        const P t506 = P(-c[0], c[0]) * t466;
        const P t507 = t329 + t506;
        const P t508 = c[1] * t473;
        const P t509 = flipped<0, 1>(t507);
        const P t510 = t508 + t509;
        const P t511 = c[2] * t467;
        const P t512 = c[3] * t475;
        const P t513 = t511 + t512;
        const P t514 = c[3] * t476;
        const P t515 = P(c[2], -c[2]) * t469;
        const P t516 = t514 + t515;
        const P t517 = t505 + t516;
        const P t518 = t510 - t513;
        const P t519 = t505 - t516;
        const P t520 = t510 + t513;
        // complex block of 5, multiplier 3
        const P t521 = t310 - t422;
        const P t522 = t419 + t307;
        const P t523 = t422 + t310;
        const P t524 = t419 - t307;
        const P t525 = t338 - t394;
        const P t526 = t335 + t391;
        const P t527 = t338 + t394;
        const P t528 = t335 - t391;
        const P t529 = t521 + t525;
        const P t530 = t522 + t526;
        const P t531 = t529 + t366;
        const P t532 = t530 - t363;
        const P t533 = c[1] * t521;
        const P t534 = c[0] * t525;
        const P t535 = t533 - t534;
        const P t536 = t535 + t366;
        const P t537 = c[1] * t522;
        const P t538 = c[0] * t526;
        const P t539 = t537 - t538;
        const P t540 = t539 - t363;
        const P t541 = c[3] * t523;
        const P t542 = c[2] * t527;
        const P t543 = t541 + t542;
        const P t544 = c[3] * t524;
        const P t545 = c[2] * t528;
        const P t546 = t544 - t545;
        const P t547 = t536 + t546;
        const P t548 = t540 + t543;
        const P t549 = t536 - t546;
        const P t550 = t540 - t543;
        const P t551 = c[0] * t521;
        const P t552 = t366 - t551;
        const P t553 = c[1] * t525;
        const P t554 = t552 + t553;
        const P t555 = c[0] * t522;
        const P t556 = t363 + t555;
        const P t557 = c[1] * t526;
        const P t558 = t557 - t556;
        const P t559 = c[3] * t527;
        const P t560 = c[2] * t523;
        const P t561 = t559 - t560;
        const P t562 = c[2] * t524;
        const P t563 = c[3] * t528;
        const P t564 = t562 + t563;
        const P t565 = t554 + t564;
        const P t566 = t558 - t561;
        const P t567 = t554 - t564;
        const P t568 = t558 + t561;
        // complex block of 5, multiplier 3
        const P t569 = t413 + t343;
        const P t570 = shuffled<0, 3>(t346, t416);
        const P t571 = shuffled<0, 3>(t416, t346);
        const P t572 = t570 - t571;
        const P t573 = t413 - t343;
        const P t574 = flipped<1, 0>(t357);
        const P t575 = t301 + t574;
        const P t576 = flipped<0, 1>(t304);
        const P t577 = t360 + t576;
        const P t578 = t301 - t574;
        const P t579 = shuffled<0, 3>(t437, t431);
        const P t580 = shuffled<0, 3>(t431, t437);
        const P t581 = t579 - t580;
        const P t582 = t569 + t575;
        const P t583 = flipped<0, 1>(t402);
        const P t584 = t581 + t583;
        const P t585 = t582 + t399;
        const V t586 = part<1>(t433);
        const V t587 = part<1>(t580);
        // complex block of 5, multiplier 3
        const V t588 = c[0] * t587;
        const V t589 = t586 + t588;
        const P t590 = joined(t435, t589);
        // complex block of 5, multiplier 3
        const V t591 = c[0] * t440;
        const V t592 = part<1>(t402);
        const P t593 = joined(t591, t592);
        const P t594 = t590 - t593;
        const P t595 = c[1] * t569;
        const P t596 = c[0] * t575;
        const P t597 = t595 - t596;
        const P t598 = t597 + t399;
        const P t599 = c[3] * t572;
        const P t600 = c[2] * t577;
        const P t601 = t599 - t600;
        const P t602 = c[3] * t573;
        const P t603 = c[2] * t578;
        const P t604 = t602 - t603;
        const P t605 = t594 + t604;
        const P t606 = t598 - t601;
        const P t607 = t594 - t604;
        const P t608 = t598 + t601;
        const V t609 = part<1>(t438);
        // complex block of 5, multiplier 3
        const V t610 = t592 + t609;
        const P t611 = joined(t442, t610);
        const V t612 = c[1] * t587;
        const P t613 = joined(t432, t612);
        // complex block of 5, multiplier 3
        const P t614 = t611 + t613;
        const P t615 = c[0] * t569;
        const P t616 = t399 - t615;
        const P t617 = c[1] * t575;
        const P t618 = t616 + t617;
        const P t619 = c[2] * t572;
        const P t620 = c[3] * t577;
        const P t621 = t619 + t620;
        const P t622 = c[2] * t573;
        const P t623 = c[3] * t578;
        const P t624 = t622 + t623;
        const P t625 = flipped<0, 1>(t614);
        const P t626 = t624 + t625;
        const P t627 = t618 - t621;
        const P t628 = flipped<1, 0>(t624);
        const P t629 = t614 + t628;
        const P t630 = t618 + t621;
        // spectrum block of 5, multiplier 3
        const P t631 = t321 - t377;
        // complex block of 41
        const P t632 = c[44] * t279;
        // spectrum block of 5, multiplier 3
        const P t633 = t631 + t632;
        const P t634 = c[1] * t377;
        const P t635 = t632 - t634;
        const P t636 = c[0] * t321;
        const P t637 = t635 - t636;
        const P t638 = c[3] * t380;
        const P t639 = c[2] * t324;
        const P t640 = t638 + t639;
        const P t641 = t637 + t640;
        const P t642 = t637 - t640;
        const P t643 = c[0] * t377;
        const P t644 = c[1] * t321;
        const P t645 = t643 + t644;
        const P t646 = t645 + t632;
        const P t647 = c[3] * t324;
        const P t648 = c[2] * t380;
        const P t649 = t647 - t648;
        const P t650 = t646 - t649;
        const P t651 = t646 + t649;
        // spectrum block of 2
        const P t652 = t444 + t633;
        const P t653 = t444 - t633;
        // spectrum block of 2
        const P t654 = t652 + t532;
        const P t655 = t652 - t532;
        // spectrum block of 2
        const P t656 = t653 - t531;
        const P t657 = t653 + t531;
        // mirrored skew block of 4, multiplier 5
        const P t658 = t585 - t482;
        const P t659 = t584 + t480;
        const P t660 = t585 + t482;
        const P t661 = c[4] * t658;
        const P t662 = c[4] * t659;
        const P t663 = t661 + t662;
        const P t664 = t480 - t584;
        const P t665 = t661 - t662;
        // spectrum block of 2
        const P t666 = t654 + t660;
        io.pair(1, t666);
        const P t667 = t654 - t660;
        io.pair(40, t667);
        // spectrum block of 2
        const P t668 = t656 + t663;
        io.pair(38, t668);
        const P t669 = t656 - t663;
        io.pair(3, t669);
        // spectrum block of 2
        const P t670 = t655 - t664;
        io.pair(9, t670);
        const P t671 = t655 + t664;
        io.pair(32, t671);
        // spectrum block of 2
        const P t672 = t657 - t665;
        io.pair(14, t672);
        const P t673 = t657 + t665;
        io.pair(27, t673);
        // spectrum block of 2
        const P t674 = t462 + t651;
        const P t675 = t462 - t651;
        // spectrum block of 2
        const P t676 = t674 + t568;
        const P t677 = t674 - t568;
        // spectrum block of 2
        const P t678 = t675 - t567;
        const P t679 = t675 + t567;
        // mirrored skew block of 4, multiplier 5
        const P t680 = t630 - t520;
        const P t681 = flipped<0, 1>(t519);
        const P t682 = t629 + t681;
        const P t683 = t630 + t520;
        const P t684 = c[4] * t680;
        const P t685 = P(c[4], -c[4]) * t682;
        const P t686 = t684 + t685;
        const P t687 = flipped<1, 0>(t629);
        const P t688 = t687 + t519;
        const P t689 = t684 - t685;
        // spectrum block of 2
        const P t690 = t676 + t683;
        io.pair(37, t690);
        const P t691 = t676 - t683;
        io.pair(4, t691);
        // spectrum block of 2
        const P t692 = t678 + t686;
        io.pair(12, t692);
        const P t693 = t678 - t686;
        io.pair(29, t693);
        // spectrum block of 2
        const P t694 = t677 - t688;
        io.pair(5, t694);
        const P t695 = t677 + t688;
        io.pair(36, t695);
        // spectrum block of 2
        const P t696 = t679 - t689;
        io.pair(26, t696);
        const P t697 = t679 + t689;
        io.pair(15, t697);
        // spectrum block of 2
        const P t698 = t452 + t641;
        const P t699 = t452 - t641;
        // spectrum block of 2
        const P t700 = t698 + t548;
        const P t701 = t698 - t548;
        // spectrum block of 2
        const P t702 = t699 - t547;
        const P t703 = t699 + t547;
        // mirrored skew block of 4, multiplier 5
        const P t704 = t606 - t499;
        const P t705 = t605 + t498;
        const P t706 = t606 + t499;
        const P t707 = c[4] * t704;
        const P t708 = c[4] * t705;
        const P t709 = t707 + t708;
        const P t710 = t498 - t605;
        const P t711 = t707 - t708;
        // spectrum block of 2
        const P t712 = t700 + t706;
        io.pair(16, t712);
        const P t713 = t700 - t706;
        io.pair(25, t713);
        // spectrum block of 2
        const P t714 = t702 + t709;
        io.pair(34, t714);
        const P t715 = t702 - t709;
        io.pair(7, t715);
        // spectrum block of 2
        const P t716 = t701 - t710;
        io.pair(21, t716);
        const P t717 = t701 + t710;
        io.pair(20, t717);
        // spectrum block of 2
        const P t718 = t703 - t711;
        io.pair(19, t718);
        const P t719 = t703 + t711;
        io.pair(22, t719);
        // spectrum block of 2
        const P t720 = t453 + t642;
        const P t721 = t453 - t642;
        // spectrum block of 2
        const P t722 = t720 + t550;
        const P t723 = t720 - t550;
        // spectrum block of 2
        const P t724 = t721 - t549;
        const P t725 = t721 + t549;
        // mirrored skew block of 4, multiplier 5
        const P t726 = t608 - t501;
        const P t727 = t607 + t500;
        const P t728 = t608 + t501;
        const P t729 = c[4] * t726;
        const P t730 = c[4] * t727;
        const P t731 = t729 + t730;
        const P t732 = t500 - t607;
        const P t733 = t729 - t730;
        // spectrum block of 2
        const P t734 = t722 + t728;
        io.pair(18, t734);
        const P t735 = t722 - t728;
        io.pair(23, t735);
        // spectrum block of 2
        const P t736 = t724 + t731;
        io.pair(28, t736);
        const P t737 = t724 - t731;
        io.pair(13, t737);
        // spectrum block of 2
        const P t738 = t723 - t732;
        io.pair(39, t738);
        const P t739 = t723 + t732;
        io.pair(2, t739);
        // spectrum block of 2
        const P t740 = t725 - t733;
        io.pair(6, t740);
        const P t741 = t725 + t733;
        io.pair(35, t741);
        // spectrum block of 2
        const P t742 = t461 + t650;
        const P t743 = t461 - t650;
        // spectrum block of 2
        const P t744 = t742 + t566;
        const P t745 = t742 - t566;
        // spectrum block of 2
        const P t746 = t743 - t565;
        const P t747 = t743 + t565;
        // mirrored skew block of 4, multiplier 5
        const P t748 = t627 - t518;
        const P t749 = t626 + t517;
        const P t750 = t627 + t518;
        const P t751 = c[4] * t748;
        const P t752 = c[4] * t749;
        const P t753 = t751 + t752;
        const P t754 = t517 - t626;
        const P t755 = t751 - t752;
        // spectrum block of 2
        const P t756 = t744 + t750;
        io.pair(10, t756);
        const P t757 = t744 - t750;
        io.pair(31, t757);
        // spectrum block of 2
        const P t758 = t746 + t753;
        io.pair(11, t758);
        const P t759 = t746 - t753;
        io.pair(30, t759);
        // spectrum block of 2
        const P t760 = t745 - t754;
        io.pair(8, t760);
        const P t761 = t745 + t754;
        io.pair(33, t761);
        // spectrum block of 2
        const P t762 = t747 - t755;
        io.pair(17, t762);
        const P t763 = t747 + t755;
        io.pair(24, t763);
    }
};

}  // namespace zulg
