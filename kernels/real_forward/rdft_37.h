// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 37.
// Forward DFT of 37 real points, Rader 4, 9.
// 200 additions, 200 subtractions, 228 multiplications (265 with `scale`); 8 outputs negated; 52 constants; 39 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<37> {
    static constexpr int steps = 665;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6427876096865394,  // c[2]: -sin 2 pi 8/9
        0.766044443118978,  // c[3]: cos 2 pi 8/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.984807753012208,  // c[6]: -sin 2 pi 7/9
        0.17364817766693036,  // c[7]: cos 2 pi 7/9
        0.1503837331804353,  // c[8]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[10]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[11]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.1731604803001738,  // c[12]: -Q[1] of 37
        0.29019472587628237,  // c[13]: -P[1] of 37
        0.27801178968802176,  // c[14]: Q[2] of 37
        0.19211188317920547,  // c[15]: P[2] of 37
        0.10832934393017396,  // c[16]: -Q[3] of 37
        0.3200973041246296,  // c[17]: P[3] of 37
        0.13371391769319224,  // c[18]: Q[4] of 37
        0.3103516055691282,  // c[19]: P[4] of 37
        0.2349547827807796,  // c[20]: Q[5] of 37
        0.24288635390370164,  // c[21]: P[5] of 37
        0.3290788923998385,  // c[22]: Q[6] of 37
        0.07684148255397624,  // c[23]: -P[6] of 37
        0.22329890434335598,  // c[24]: Q[7] of 37
        0.25364370716273305,  // c[25]: P[7] of 37
        0.2338246809597342,  // c[26]: Q[8] of 37
        0.24397448521981976,  // c[27]: P[8] of 37
        0.2578482977363278,  // c[28]: -Q[9] of 37
        0.21843027770589768,  // c[29]: -P[9] of 37
        0.25216731301218065,  // c[30]: Q[10] of 37
        0.22496483527968195,  // c[31]: -P[10] of 37
        0.2870996561549517,  // c[32]: -Q[11] of 37
        0.1782451073659696,  // c[33]: P[11] of 37
        0.3142620078134601,  // c[34]: -Q[12] of 37
        0.12424540759822993,  // c[35]: P[12] of 37
        0.07205928987611672,  // c[36]: -Q[13] of 37
        0.3301590368394409,  // c[37]: -P[13] of 37
        0.2912479292396942,  // c[38]: Q[14] of 37
        0.17138312220807392,  // c[39]: P[14] of 37
        0.2979328013860101,  // c[40]: Q[15] of 37
        0.15947907926271018,  // c[41]: -P[15] of 37
        0.32147563578344845,  // c[42]: Q[16] of 37
        0.10416787634306994,  // c[43]: P[16] of 37
        0.026690240834250763,  // c[44]: -Q[17] of 37
        0.3368755881752301,  // c[45]: P[17] of 37
        0.75,  // c[46]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[47]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.6634139481689384,  // c[48]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[49]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.027777777777777776,  // c[50]: 1/36
        0.1689656258416172,  // c[51]: beta of 37
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x1 = io.in(1);
        const V x36 = io.in(36);
        const V t0 = x1 + x36;
        const V t1 = x1 - x36;
        // real block of 2
        const V x31 = io.in(31);
        const V x6 = io.in(6);
        const V t2 = x31 + x6;
        const V t3 = x31 - x6;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x16 = io.in(16);
        const V x21 = io.in(21);
        const V t6 = x16 + x21;
        const V t7 = x16 - x21;
        // real block of 2
        const V x15 = io.in(15);
        const V x22 = io.in(22);
        const V t8 = x15 + x22;
        const V t9 = x15 - x22;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x34 = io.in(34);
        const V x3 = io.in(3);
        const V t12 = x34 + x3;
        const V t13 = x34 - x3;
        // real block of 2
        const V x18 = io.in(18);
        const V x19 = io.in(19);
        const V t14 = x18 + x19;
        const V t15 = x18 - x19;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x26 = io.in(26);
        const V x11 = io.in(11);
        const V t18 = x26 + x11;
        const V t19 = x26 - x11;
        // real block of 2
        const V x29 = io.in(29);
        const V x8 = io.in(8);
        const V t20 = x29 + x8;
        const V t21 = x29 - x8;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V x9 = io.in(9);
        const V x28 = io.in(28);
        const V t24 = x9 + x28;
        const V t25 = x9 - x28;
        // real block of 2
        const V x20 = io.in(20);
        const V x17 = io.in(17);
        const V t26 = x20 + x17;
        const V t27 = x20 - x17;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 2
        const V x33 = io.in(33);
        const V x4 = io.in(4);
        const V t30 = x33 + x4;
        const V t31 = x33 - x4;
        // real block of 2
        const V x24 = io.in(24);
        const V x13 = io.in(13);
        const V t32 = x24 + x13;
        const V t33 = x24 - x13;
        // real block of 2
        const V t34 = t30 + t32;
        const V t35 = t30 - t32;
        // real block of 2
        const V x10 = io.in(10);
        const V x27 = io.in(27);
        const V t36 = x10 + x27;
        const V t37 = x10 - x27;
        // real block of 2
        const V x14 = io.in(14);
        const V x23 = io.in(23);
        const V t38 = x14 + x23;
        const V t39 = x14 - x23;
        // real block of 2
        const V t40 = t36 + t38;
        const V t41 = t36 - t38;
        // real block of 2
        const V x12 = io.in(12);
        const V x25 = io.in(25);
        const V t42 = x12 + x25;
        const V t43 = x12 - x25;
        // real block of 2
        const V x2 = io.in(2);
        const V x35 = io.in(35);
        const V t44 = x2 + x35;
        const V t45 = x2 - x35;
        // real block of 2
        const V t46 = t42 + t44;
        const V t47 = t42 - t44;
        // real block of 2
        const V x7 = io.in(7);
        const V x30 = io.in(30);
        const V t48 = x7 + x30;
        const V t49 = x7 - x30;
        // real block of 2
        const V x32 = io.in(32);
        const V x5 = io.in(5);
        const V t50 = x32 + x5;
        const V t51 = x32 - x5;
        // real block of 2
        const V t52 = t48 + t50;
        const V t53 = t48 - t50;
        // real block of 3
        const V t54 = t22 + t40;
        const V t55 = t22 - t40;
        const V t56 = t54 + t4;
        const V t57 = c[0] * t54;
        const V t58 = t4 - t57;
        const V t59 = c[1] * t55;
        // real block of 3
        const V t60 = t28 + t46;
        const V t61 = t28 - t46;
        const V t62 = t60 + t10;
        const V t63 = c[0] * t60;
        const V t64 = t10 - t63;
        const V t65 = c[1] * t61;
        // real block of 3
        const V t66 = t34 + t52;
        const V t67 = t34 - t52;
        const V t68 = t66 + t16;
        const V t69 = c[0] * t66;
        const V t70 = t16 - t69;
        const V t71 = c[1] * t67;
        // real block of 3
        const V t72 = t62 + t68;
        const V t73 = t62 - t68;
        const V t74 = t72 + t56;
        const V t75 = c[0] * t72;
        const V t76 = t56 - t75;
        const V t77 = c[1] * t73;
        // real block of 9, multiplier 4
        const V t78 = c[4] * t65;
        const V t79 = c[5] * t64;
        const V t80 = t79 + t78;
        const V t81 = c[4] * t64;
        const V t82 = c[5] * t65;
        const V t83 = t82 - t81;
        const V t84 = c[2] * t71;
        const V t85 = c[3] * t70;
        const V t86 = t85 + t84;
        const V t87 = c[2] * t70;
        const V t88 = c[3] * t71;
        const V t89 = t87 - t88;
        // complex block of 3
        const V t90 = t86 - t80;
        const V t91 = t83 + t89;
        const V t92 = t80 + t86;
        const V t93 = t83 - t89;
        const V t94 = t90 + t58;
        const V t95 = t91 - t59;
        const V t96 = c[0] * t90;
        const V t97 = t58 - t96;
        const V t98 = c[0] * t91;
        const V t99 = t59 + t98;
        const V t100 = c[1] * t92;
        const V t101 = c[1] * t93;
        const V t102 = t97 + t101;
        const V t103 = t100 - t99;
        const V t104 = t97 - t101;
        const V t105 = t99 + t100;
        // complex block of 3
        const V t106 = t19 + t37;
        const V t107 = t21 + t39;
        const V t108 = t19 - t37;
        const V t109 = t39 - t21;
        const V t110 = t106 + t1;
        const V t111 = t107 + t3;
        const V t112 = c[0] * t106;
        const V t113 = t1 - t112;
        const V t114 = c[0] * t107;
        const V t115 = t114 - t3;
        const V t116 = c[1] * t108;
        const V t117 = c[1] * t109;
        const V t118 = t113 + t117;
        const V t119 = t115 - t116;
        const V t120 = t113 - t117;
        const V t121 = t115 + t116;
        // complex block of 3
        const V t122 = t25 + t43;
        const V t123 = t27 + t45;
        const V t124 = t25 - t43;
        const V t125 = t45 - t27;
        const V t126 = t122 + t7;
        const V t127 = t123 + t9;
        const V t128 = c[0] * t122;
        const V t129 = t7 - t128;
        const V t130 = c[0] * t123;
        const V t131 = t130 - t9;
        const V t132 = c[1] * t124;
        const V t133 = c[1] * t125;
        const V t134 = t129 + t133;
        const V t135 = t131 - t132;
        const V t136 = t129 - t133;
        const V t137 = t131 + t132;
        // complex block of 3
        const V t138 = t31 + t49;
        const V t139 = t33 + t51;
        const V t140 = t31 - t49;
        const V t141 = t51 - t33;
        const V t142 = t138 + t13;
        const V t143 = t139 + t15;
        const V t144 = c[0] * t138;
        const V t145 = t13 - t144;
        const V t146 = c[0] * t139;
        const V t147 = t146 - t15;
        const V t148 = c[1] * t140;
        const V t149 = c[1] * t141;
        const V t150 = t145 + t149;
        const V t151 = t147 - t148;
        const V t152 = t145 - t149;
        const V t153 = t147 + t148;
        // complex block of 3
        const V t154 = t126 + t142;
        const V t155 = t127 + t143;
        const V t156 = t126 - t142;
        const V t157 = t143 - t127;
        const V t158 = t154 + t110;
        const V t159 = t155 + t111;
        const V t160 = c[0] * t154;
        const V t161 = t110 - t160;
        const V t162 = c[0] * t155;
        const V t163 = t162 - t111;
        const V t164 = c[1] * t156;
        const V t165 = c[1] * t157;
        const V t166 = t161 + t165;
        const V t167 = t163 - t164;
        const V t168 = t161 - t165;
        const V t169 = t163 + t164;
        // complex block of 9, multiplier 4
        const V t170 = c[4] * t135;
        const V t171 = c[5] * t134;
        const V t172 = t170 - t171;
        const V t173 = c[4] * t134;
        const V t174 = c[5] * t135;
        const V t175 = t174 + t173;
        const V t176 = c[2] * t151;
        const V t177 = c[3] * t150;
        const V t178 = t177 - t176;
        const V t179 = c[2] * t150;
        const V t180 = c[3] * t151;
        const V t181 = t180 + t179;
        // complex block of 3
        const V t182 = t172 + t178;
        const V t183 = t181 - t175;
        const V t184 = t172 - t178;
        const V t185 = t175 + t181;
        const V t186 = t182 + t118;
        const V t187 = t183 + t119;
        const V t188 = c[0] * t182;
        const V t189 = t118 - t188;
        const V t190 = c[0] * t183;
        const V t191 = t119 - t190;
        const V t192 = c[1] * t184;
        const V t193 = c[1] * t185;
        const V t194 = t189 - t193;
        const V t195 = t191 - t192;
        const V t196 = t189 + t193;
        const V t197 = t191 + t192;
        // complex block of 9, multiplier 4
        const V t198 = c[2] * t137;
        const V t199 = c[3] * t136;
        const V t200 = t199 - t198;
        const V t201 = c[2] * t136;
        const V t202 = c[3] * t137;
        const V t203 = t202 + t201;
        const V t204 = c[6] * t153;
        const V t205 = c[7] * t152;
        const V t206 = t205 - t204;
        const V t207 = c[6] * t152;
        const V t208 = c[7] * t153;
        const V t209 = t208 + t207;
        // complex block of 3
        const V t210 = t200 + t206;
        const V t211 = t203 + t209;
        const V t212 = t200 - t206;
        const V t213 = t203 - t209;
        const V t214 = t210 + t120;
        const V t215 = t211 + t121;
        const V t216 = c[0] * t210;
        const V t217 = t120 - t216;
        const V t218 = c[0] * t211;
        const V t219 = t121 - t218;
        const V t220 = c[1] * t212;
        const V t221 = c[1] * t213;
        const V t222 = t217 + t221;
        const V t223 = t219 - t220;
        const V t224 = t217 - t221;
        const V t225 = t219 + t220;
        // real block of 3
        const V t226 = t23 + t41;
        const V t227 = t23 - t41;
        const V t228 = t226 + t5;
        const V t229 = c[0] * t226;
        const V t230 = t5 - t229;
        const V t231 = c[1] * t227;
        // real block of 3
        const V t232 = t29 + t47;
        const V t233 = t29 - t47;
        const V t234 = t232 + t11;
        const V t235 = c[0] * t232;
        const V t236 = t11 - t235;
        const V t237 = c[1] * t233;
        // real block of 3
        const V t238 = t35 + t53;
        const V t239 = t35 - t53;
        const V t240 = t238 + t17;
        const V t241 = c[0] * t238;
        const V t242 = t17 - t241;
        const V t243 = c[1] * t239;
        // real block of 3
        const V t244 = t234 + t240;
        const V t245 = t234 - t240;
        const V t246 = t244 + t228;
        const V t247 = c[0] * t244;
        const V t248 = t228 - t247;
        const V t249 = c[1] * t245;
        // real block of 9, multiplier 4
        const V t250 = c[4] * t237;
        const V t251 = c[5] * t236;
        const V t252 = t251 + t250;
        const V t253 = c[4] * t236;
        const V t254 = c[5] * t237;
        const V t255 = t254 - t253;
        const V t256 = c[2] * t243;
        const V t257 = c[3] * t242;
        const V t258 = t257 + t256;
        const V t259 = c[2] * t242;
        const V t260 = c[3] * t243;
        const V t261 = t259 - t260;
        // complex block of 3
        const V t262 = t258 - t252;
        const V t263 = t255 + t261;
        const V t264 = t252 + t258;
        const V t265 = t255 - t261;
        const V t266 = t262 + t230;
        const V t267 = t263 - t231;
        const V t268 = c[0] * t262;
        const V t269 = t230 - t268;
        const V t270 = c[0] * t263;
        const V t271 = t231 + t270;
        const V t272 = c[1] * t264;
        const V t273 = c[1] * t265;
        const V t274 = t269 + t273;
        const V t275 = t272 - t271;
        const V t276 = t269 - t273;
        const V t277 = t271 + t272;
        // real block of 37
        const V x0 = io.in(0);
        const V t278 = x0 + t74;
        io.re(0, t278);
        const V t279 = c[50] * t74;
        const V t280 = x0 - t279;
        const V t281 = c[12] * t197;
        const V t282 = c[13] * t196;
        const V t283 = t281 - t282;
        const V t284 = c[12] * t196;
        const V t285 = c[13] * t197;
        const V t286 = t285 + t284;
        const V t287 = c[14] * t275;
        const V t288 = c[15] * t274;
        const V t289 = t288 + t287;
        const V t290 = c[14] * t274;
        const V t291 = c[15] * t275;
        const V t292 = t290 - t291;
        const V t293 = c[16] * t169;
        const V t294 = c[17] * t168;
        const V t295 = t294 - t293;
        const V t296 = c[16] * t168;
        const V t297 = c[17] * t169;
        const V t298 = t297 + t296;
        const V t299 = c[18] * t95;
        const V t300 = c[19] * t94;
        const V t301 = t300 - t299;
        const V t302 = c[18] * t94;
        const V t303 = c[19] * t95;
        const V t304 = t303 + t302;
        const V t305 = c[20] * t225;
        const V t306 = c[21] * t224;
        const V t307 = t306 - t305;
        const V t308 = c[20] * t224;
        const V t309 = c[21] * t225;
        const V t310 = t309 + t308;
        const V t311 = c[22] * t249;
        const V t312 = c[23] * t248;
        const V t313 = t312 + t311;
        const V t314 = c[22] * t248;
        const V t315 = c[23] * t249;
        const V t316 = t314 - t315;
        const V t317 = c[24] * t223;
        const V t318 = c[25] * t222;
        const V t319 = t318 + t317;
        const V t320 = c[24] * t222;
        const V t321 = c[25] * t223;
        const V t322 = t320 - t321;
        const V t323 = c[26] * t105;
        const V t324 = c[27] * t104;
        const V t325 = t324 - t323;
        const V t326 = c[26] * t104;
        const V t327 = c[27] * t105;
        const V t328 = t327 + t326;
        const V t329 = c[28] * t159;
        const V t330 = c[29] * t158;
        const V t331 = t330 + t329;
        const V t332 = c[28] * t158;
        const V t333 = c[29] * t159;
        const V t334 = t332 - t333;
        const V t335 = c[30] * t277;
        const V t336 = c[31] * t276;
        const V t337 = t335 - t336;
        const V t338 = c[30] * t276;
        const V t339 = c[31] * t277;
        const V t340 = t339 + t338;
        const V t341 = c[32] * t195;
        const V t342 = c[33] * t194;
        const V t343 = t342 - t341;
        const V t344 = c[32] * t194;
        const V t345 = c[33] * t195;
        const V t346 = t345 + t344;
        const V t347 = c[34] * t77;
        const V t348 = c[35] * t76;
        const V t349 = t348 - t347;
        const V t350 = c[34] * t76;
        const V t351 = c[35] * t77;
        const V t352 = t351 + t350;
        const V t353 = c[36] * t187;
        const V t354 = c[37] * t186;
        const V t355 = t353 - t354;
        const V t356 = c[36] * t186;
        const V t357 = c[37] * t187;
        const V t358 = t357 + t356;
        const V t359 = c[38] * t267;
        const V t360 = c[39] * t266;
        const V t361 = t360 + t359;
        const V t362 = c[38] * t266;
        const V t363 = c[39] * t267;
        const V t364 = t362 - t363;
        const V t365 = c[40] * t167;
        const V t366 = c[41] * t166;
        const V t367 = t365 - t366;
        const V t368 = c[40] * t166;
        const V t369 = c[41] * t167;
        const V t370 = t369 + t368;
        const V t371 = c[42] * t103;
        const V t372 = c[43] * t102;
        const V t373 = t372 - t371;
        const V t374 = c[42] * t102;
        const V t375 = c[43] * t103;
        const V t376 = t375 + t374;
        const V t377 = c[44] * t215;
        const V t378 = c[45] * t214;
        const V t379 = t378 + t377;
        const V t380 = c[44] * t214;
        const V t381 = c[45] * t215;
        const V t382 = t381 - t380;
        const V t383 = c[51] * t246;
        // spectrum block of 2
        const V t384 = t280 + t383;
        const V t385 = t280 - t383;
        // complex block of 2
        const V t386 = t304 - t364;
        const V t387 = t301 + t361;
        const V t388 = t304 + t364;
        const V t389 = t301 - t361;
        // complex block of 2
        const V t390 = t328 - t340;
        const V t391 = t325 + t337;
        const V t392 = t328 + t340;
        const V t393 = t325 - t337;
        // complex block of 2
        const V t394 = t352 + t316;
        const V t395 = t349 - t313;
        const V t396 = t316 - t352;
        const V t397 = t349 + t313;
        // complex block of 2
        const V t398 = t376 - t292;
        const V t399 = t373 + t289;
        const V t400 = t376 + t292;
        const V t401 = t373 - t289;
        // spectrum block of 3, multiplier 2
        const V t402 = t395 + t384;
        const V t403 = c[0] * t395;
        const V t404 = t384 - t403;
        const V t405 = c[1] * t394;
        const V t406 = t404 + t405;
        const V t407 = t404 - t405;
        // complex block of 3, multiplier 2
        const V t408 = t398 - t390;
        const V t409 = t399 + t391;
        const V t410 = t398 + t390;
        const V t411 = t399 - t391;
        const V t412 = t408 + t386;
        const V t413 = t409 + t387;
        const V t414 = c[0] * t408;
        const V t415 = t386 - t414;
        const V t416 = c[0] * t409;
        const V t417 = t387 - t416;
        const V t418 = c[1] * t410;
        const V t419 = c[1] * t411;
        const V t420 = t415 + t419;
        const V t421 = t417 - t418;
        const V t422 = t415 - t419;
        const V t423 = t417 + t418;
        // spectrum block of 9, multiplier 2
        const V t424 = c[6] * t422;
        const V t425 = c[7] * t423;
        const V t426 = t425 - t424;
        const V t427 = c[4] * t420;
        const V t428 = c[5] * t421;
        const V t429 = t428 + t427;
        // spectrum block of 3, multiplier 2
        const V t430 = t413 + t402;
        io.re(1, t430);
        const V t431 = c[0] * t413;
        const V t432 = t402 - t431;
        const V t433 = c[1] * t412;
        const V t434 = t432 - t433;
        io.re(10, t434);
        const V t435 = t432 + t433;
        io.re(11, t435);
        // spectrum block of 3, multiplier 2
        const V t436 = t426 + t407;
        io.re(9, t436);
        const V t437 = c[0] * t426;
        const V t438 = t407 - t437;
        const V t439 = c[8] * t422;
        const V t440 = c[9] * t423;
        const V t441 = t439 + t440;
        const V t442 = t438 - t441;
        io.re(16, t442);
        const V t443 = t438 + t441;
        io.re(12, t443);
        // spectrum block of 3, multiplier 2
        const V t444 = t406 - t429;
        io.re(7, t444);
        const V t445 = c[0] * t429;
        const V t446 = t445 + t406;
        const V t447 = c[10] * t421;
        const V t448 = c[11] * t420;
        const V t449 = t447 - t448;
        const V t450 = t446 - t449;
        io.re(4, t450);
        const V t451 = t446 + t449;
        io.re(3, t451);
        // spectrum block of 3, multiplier 2
        const V t452 = t397 + t385;
        const V t453 = c[0] * t397;
        const V t454 = t385 - t453;
        const V t455 = c[1] * t396;
        const V t456 = t454 - t455;
        const V t457 = t454 + t455;
        // complex block of 3, multiplier 2
        const V t458 = t400 - t392;
        const V t459 = t401 + t393;
        const V t460 = t400 + t392;
        const V t461 = t401 - t393;
        const V t462 = t458 + t388;
        const V t463 = t459 + t389;
        const V t464 = c[0] * t458;
        const V t465 = t388 - t464;
        const V t466 = c[0] * t459;
        const V t467 = t389 - t466;
        const V t468 = c[1] * t460;
        const V t469 = c[1] * t461;
        const V t470 = t465 + t469;
        const V t471 = t467 - t468;
        const V t472 = t465 - t469;
        const V t473 = t467 + t468;
        // spectrum block of 9, multiplier 2
        const V t474 = c[6] * t472;
        const V t475 = c[7] * t473;
        const V t476 = t475 - t474;
        const V t477 = c[4] * t470;
        const V t478 = c[5] * t471;
        const V t479 = t478 + t477;
        // spectrum block of 3, multiplier 2
        const V t480 = t463 + t452;
        io.re(6, t480);
        const V t481 = c[0] * t463;
        const V t482 = t452 - t481;
        const V t483 = c[1] * t462;
        const V t484 = t482 - t483;
        io.re(14, t484);
        const V t485 = t482 + t483;
        io.re(8, t485);
        // spectrum block of 3, multiplier 2
        const V t486 = t476 + t457;
        io.re(17, t486);
        const V t487 = c[0] * t476;
        const V t488 = t457 - t487;
        const V t489 = c[8] * t472;
        const V t490 = c[9] * t473;
        const V t491 = t489 + t490;
        const V t492 = t488 - t491;
        io.re(15, t492);
        const V t493 = t488 + t491;
        io.re(2, t493);
        // spectrum block of 3, multiplier 2
        const V t494 = t456 - t479;
        io.re(5, t494);
        const V t495 = c[0] * t479;
        const V t496 = t495 + t456;
        const V t497 = c[10] * t471;
        const V t498 = c[11] * t470;
        const V t499 = t497 - t498;
        const V t500 = t496 - t499;
        io.re(13, t500);
        const V t501 = t496 + t499;
        io.re(18, t501);
        // complex block of 3, multiplier 2
        const V t502 = t343 - t355;
        const V t503 = t358 + t346;
        const V t504 = t355 + t343;
        const V t505 = t346 - t358;
        const V t506 = t502 - t283;
        const V t507 = t503 + t286;
        const V t508 = c[0] * t502;
        const V t509 = t283 + t508;
        const V t510 = c[0] * t503;
        const V t511 = t510 - t286;
        const V t512 = c[1] * t504;
        const V t513 = c[1] * t505;
        const V t514 = t513 - t509;
        const V t515 = t511 + t512;
        const V t516 = t509 + t513;
        const V t517 = t511 - t512;
        // complex block of 3, multiplier 2
        const V t518 = t307 - t319;
        const V t519 = t310 + t322;
        const V t520 = t307 + t319;
        const V t521 = t310 - t322;
        const V t522 = t518 + t379;
        const V t523 = t519 + t382;
        const V t524 = c[0] * t518;
        const V t525 = t379 - t524;
        const V t526 = c[0] * t519;
        const V t527 = t382 - t526;
        const V t528 = c[1] * t520;
        const V t529 = c[1] * t521;
        const V t530 = t525 + t529;
        const V t531 = t527 - t528;
        const V t532 = t525 - t529;
        const V t533 = t527 + t528;
        // complex block of 2
        const V t534 = t506 + t522;
        const V t535 = t523 - t507;
        const V t536 = t506 - t522;
        const V t537 = t507 + t523;
        // complex block of 2
        const V t538 = t532 - t516;
        const V t539 = t517 + t533;
        const V t540 = t516 + t532;
        const V t541 = t517 - t533;
        // complex block of 2
        const V t542 = t514 + t530;
        const V t543 = t515 + t531;
        const V t544 = t514 - t530;
        const V t545 = t515 - t531;
        // mirrored skew block of 18
        const V t546 = c[7] * t544;
        const V t547 = c[6] * t545;
        const V t548 = t547 - t546;
        const V t549 = c[4] * t538;
        const V t550 = c[5] * t539;
        const V t551 = t549 - t550;
        const V t552 = c[0] * t536;
        const V t553 = c[1] * t537;
        const V t554 = t553 + t552;
        const V t555 = c[2] * t542;
        const V t556 = c[3] * t543;
        const V t557 = t556 - t555;
        const V t558 = c[3] * t540;
        const V t559 = c[2] * t541;
        const V t560 = t559 + t558;
        // complex block of 2
        const V t561 = t367 - t295;
        const V t562 = t370 - t298;
        const V t563 = t295 + t367;
        const V t564 = t298 + t370;
        // mirrored skew block of 6
        const V t565 = c[0] * t563;
        const V t566 = c[1] * t564;
        const V t567 = t565 - t566;
        // spectrum block of 3, multiplier 2
        const V t568 = t562 - t334;
        const V t569 = c[0] * t562;
        const V t570 = t334 + t569;
        const V t571 = c[1] * t561;
        const V t572 = t571 - t570;
        const V t573 = t570 + t571;
        // spectrum block of 3, multiplier 2
        const V t574 = t567 - t331;
        const V t575 = c[0] * t567;
        const V t576 = t331 + t575;
        const V t577 = c[46] * t563;
        const V t578 = c[47] * t564;
        const V t579 = t577 + t578;
        const V t580 = t576 + t579;
        const V t581 = t579 - t576;
        // spectrum block of 3, multiplier 2
        const V t582 = t535 + t568;
        io.im(1, t582);
        const V t583 = c[0] * t535;
        const V t584 = t568 - t583;
        const V t585 = c[1] * t534;
        const V t586 = t584 + t585;
        io.minusIm(11, t586);
        const V t587 = t584 - t585;
        io.im(10, t587);
        // spectrum block of 3, multiplier 2
        const V t588 = t548 + t574;
        io.minusIm(18, t588);
        const V t589 = c[0] * t548;
        const V t590 = t574 - t589;
        const V t591 = c[9] * t544;
        const V t592 = c[8] * t545;
        const V t593 = t591 + t592;
        const V t594 = t590 + t593;
        io.im(13, t594);
        const V t595 = t590 - t593;
        io.im(5, t595);
        // spectrum block of 3, multiplier 2
        const V t596 = t551 + t572;
        io.im(9, t596);
        const V t597 = c[0] * t551;
        const V t598 = t572 - t597;
        const V t599 = c[11] * t538;
        const V t600 = c[10] * t539;
        const V t601 = t599 + t600;
        const V t602 = t601 - t598;
        io.minusIm(12, t602);
        const V t603 = t598 + t601;
        io.im(16, t603);
        // spectrum block of 3, multiplier 2
        const V t604 = t580 - t554;
        io.im(14, t604);
        const V t605 = c[0] * t554;
        const V t606 = t605 + t580;
        const V t607 = c[46] * t536;
        const V t608 = c[47] * t537;
        const V t609 = t607 - t608;
        const V t610 = t606 + t609;
        io.minusIm(6, t610);
        const V t611 = t606 - t609;
        io.minusIm(8, t611);
        // spectrum block of 3, multiplier 2
        const V t612 = t557 - t573;
        io.im(7, t612);
        const V t613 = c[0] * t557;
        const V t614 = t573 + t613;
        const V t615 = c[48] * t542;
        const V t616 = c[49] * t543;
        const V t617 = t615 + t616;
        const V t618 = t617 - t614;
        io.minusIm(3, t618);
        const V t619 = t614 + t617;
        io.im(4, t619);
        // spectrum block of 3, multiplier 2
        const V t620 = t560 + t581;
        io.minusIm(15, t620);
        const V t621 = c[0] * t560;
        const V t622 = t581 - t621;
        const V t623 = c[48] * t541;
        const V t624 = c[49] * t540;
        const V t625 = t623 - t624;
        const V t626 = t622 + t625;
        io.im(17, t626);
        const V t627 = t622 - t625;
        io.minusIm(2, t627);
    }
};

}  // namespace zulg
