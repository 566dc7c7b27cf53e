// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 31.
// Forward DFT of 31 real points, Rader 3, 2, 5.
// 167 additions, 149 subtractions, 192 multiplications (223 with `scale`); 6 outputs negated; 40 constants; 38 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<31> {
    static constexpr int steps = 539;  // with `scale`
    static constexpr double inverseRoot = 0.1796053020267749;  // 1/sqrt(31), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.03988273291964531,  // c[6]: Q[1] of 31
        0.3690354256607867,  // c[7]: -P[1] of 31
        0.0008245188371257438,  // c[8]: -Q[2] of 31
        0.3711833750943932,  // c[9]: P[2] of 31
        0.20210094150400285,  // c[10]: -Q[3] of 31
        0.31134062892750347,  // c[11]: P[3] of 31
        0.36666699090448956,  // c[12]: Q[4] of 31
        0.057732967694591485,  // c[13]: P[4] of 31
        0.21370283071490567,  // c[14]: -Q[6] of 31
        0.30349444463155195,  // c[15]: P[6] of 31
        0.36985241937462743,  // c[16]: Q[7] of 31
        0.031416009621091305,  // c[17]: P[7] of 31
        0.2957152178933792,  // c[18]: Q[8] of 31
        0.22434412781271781,  // c[19]: -P[8] of 31
        0.35029620511956006,  // c[20]: Q[9] of 31
        0.12276133942171241,  // c[21]: P[9] of 31
        0.05080100546858957,  // c[22]: Q[11] of 31
        0.3676914951710987,  // c[23]: P[11] of 31
        0.127938670558679,  // c[24]: Q[12] of 31
        0.3484386235098738,  // c[25]: P[12] of 31
        0.36643087194413576,  // c[26]: -Q[13] of 31
        0.0592131223973046,  // c[27]: -P[13] of 31
        0.3215874570406464,  // c[28]: Q[14] of 31
        0.1853625778087589,  // c[29]: -P[14] of 31
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
        const V x25 = io.in(25);
        const V x5 = io.in(5);
        const V t0 = x25 + x5;
        const V t1 = x25 - x5;
        const V x1 = io.in(1);
        const V t2 = t0 + x1;
        const V t3 = c[4] * t0;
        const V t4 = x1 - t3;
        const V t5 = c[5] * t1;
        // real block of 3
        const V x24 = io.in(24);
        const V x11 = io.in(11);
        const V t6 = x24 + x11;
        const V t7 = x24 - x11;
        const V x27 = io.in(27);
        const V t8 = t6 + x27;
        const V t9 = c[4] * t6;
        const V t10 = x27 - t9;
        const V t11 = c[5] * t7;
        // real block of 3
        const V x28 = io.in(28);
        const V x18 = io.in(18);
        const V t12 = x28 + x18;
        const V t13 = x28 - x18;
        const V x16 = io.in(16);
        const V t14 = t12 + x16;
        const V t15 = c[4] * t12;
        const V t16 = x16 - t15;
        const V t17 = c[5] * t13;
        // real block of 3
        const V x12 = io.in(12);
        const V x21 = io.in(21);
        const V t18 = x12 + x21;
        const V t19 = x12 - x21;
        const V x29 = io.in(29);
        const V t20 = t18 + x29;
        const V t21 = c[4] * t18;
        const V t22 = x29 - t21;
        const V t23 = c[5] * t19;
        // real block of 3
        const V x14 = io.in(14);
        const V x9 = io.in(9);
        const V t24 = x14 + x9;
        const V t25 = x14 - x9;
        const V x8 = io.in(8);
        const V t26 = t24 + x8;
        const V t27 = c[4] * t24;
        const V t28 = x8 - t27;
        const V t29 = c[5] * t25;
        // real block of 3
        const V x6 = io.in(6);
        const V x26 = io.in(26);
        const V t30 = x6 + x26;
        const V t31 = x6 - x26;
        const V x30 = io.in(30);
        const V t32 = t30 + x30;
        const V t33 = c[4] * t30;
        const V t34 = x30 - t33;
        const V t35 = c[5] * t31;
        // real block of 3
        const V x7 = io.in(7);
        const V x20 = io.in(20);
        const V t36 = x7 + x20;
        const V t37 = x7 - x20;
        const V x4 = io.in(4);
        const V t38 = t36 + x4;
        const V t39 = c[4] * t36;
        const V t40 = x4 - t39;
        const V t41 = c[5] * t37;
        // real block of 3
        const V x3 = io.in(3);
        const V x13 = io.in(13);
        const V t42 = x3 + x13;
        const V t43 = x3 - x13;
        const V x15 = io.in(15);
        const V t44 = t42 + x15;
        const V t45 = c[4] * t42;
        const V t46 = x15 - t45;
        const V t47 = c[5] * t43;
        // real block of 3
        const V x19 = io.in(19);
        const V x10 = io.in(10);
        const V t48 = x19 + x10;
        const V t49 = x19 - x10;
        const V x2 = io.in(2);
        const V t50 = t48 + x2;
        const V t51 = c[4] * t48;
        const V t52 = x2 - t51;
        const V t53 = c[5] * t49;
        // real block of 3
        const V x17 = io.in(17);
        const V x22 = io.in(22);
        const V t54 = x17 + x22;
        const V t55 = x17 - x22;
        const V x23 = io.in(23);
        const V t56 = t54 + x23;
        const V t57 = c[4] * t54;
        const V t58 = x23 - t57;
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
        // real block of 31
        const V x0 = io.in(0);
        const V t226 = x0 + t75;
        io.re(0, t226);
        const V t227 = c[30] * t75;
        const V t228 = x0 - t227;
        const V t229 = c[6] * t205;
        const V t230 = c[7] * t204;
        const V t231 = t230 + t229;
        const V t232 = c[6] * t204;
        const V t233 = c[7] * t205;
        const V t234 = t232 - t233;
        const V t235 = c[8] * t177;
        const V t236 = c[9] * t176;
        const V t237 = t236 - t235;
        const V t238 = c[8] * t176;
        const V t239 = c[9] * t177;
        const V t240 = t239 + t238;
        const V t241 = c[10] * t109;
        const V t242 = c[11] * t106;
        const V t243 = t242 + t241;
        const V t244 = c[10] * t106;
        const V t245 = c[11] * t109;
        const V t246 = t245 - t244;
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
        const V t258 = t257 + t256;
        const V t259 = c[14] * t79;
        const V t260 = c[15] * t82;
        const V t261 = t260 - t259;
        const V t262 = c[16] * t223;
        const V t263 = c[17] * t222;
        const V t264 = t263 - t262;
        const V t265 = c[16] * t222;
        const V t266 = c[17] * t223;
        const V t267 = t266 + t265;
        const V t268 = c[18] * t175;
        const V t269 = c[19] * t174;
        const V t270 = t268 - t269;
        const V t271 = c[18] * t174;
        const V t272 = c[19] * t175;
        const V t273 = t272 + t271;
        const V t274 = c[20] * t102;
        const V t275 = c[21] * t99;
        const V t276 = t275 + t274;
        const V t277 = c[20] * t99;
        const V t278 = c[21] * t102;
        const V t279 = t277 - t278;
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
        const V t291 = t290 + t289;
        const V t292 = c[24] * t86;
        const V t293 = c[25] * t89;
        const V t294 = t292 - t293;
        const V t295 = c[26] * t225;
        const V t296 = c[27] * t224;
        const V t297 = t295 - t296;
        const V t298 = c[26] * t224;
        const V t299 = c[27] * t225;
        const V t300 = t299 + t298;
        const V t301 = c[28] * t157;
        const V t302 = c[29] * t156;
        const V t303 = t301 - t302;
        const V t304 = c[28] * t156;
        const V t305 = c[29] * t157;
        const V t306 = t305 + t304;
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
        const V t334 = t240 - t273;
        const V t335 = t270 - t237;
        const V t336 = t294 - t332;
        const V t337 = t333 + t291;
        const V t338 = c[4] * t332;
        const V t339 = t338 + t294;
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
        io.re(1, t349);
        const V t350 = c[0] * t321;
        const V t351 = c[1] * t337;
        const V t352 = t350 - t351;
        const V t353 = t352 + t308;
        const V t354 = c[2] * t320;
        const V t355 = c[3] * t336;
        const V t356 = t354 + t355;
        const V t357 = t353 - t356;
        io.re(2, t357);
        const V t358 = t353 + t356;
        io.re(15, t358);
        const V t359 = c[1] * t321;
        const V t360 = t308 - t359;
        const V t361 = c[0] * t337;
        const V t362 = t360 + t361;
        const V t363 = c[3] * t320;
        const V t364 = c[2] * t336;
        const V t365 = t363 - t364;
        const V t366 = t362 - t365;
        io.re(4, t366);
        const V t367 = t362 + t365;
        io.re(8, t367);
        // spectrum block of 5, multiplier 3
        const V t368 = t331 + t347;
        const V t369 = t368 + t315;
        io.re(6, t369);
        const V t370 = c[0] * t331;
        const V t371 = c[1] * t347;
        const V t372 = t370 - t371;
        const V t373 = t372 + t315;
        const V t374 = c[2] * t330;
        const V t375 = c[3] * t346;
        const V t376 = t374 + t375;
        const V t377 = t373 - t376;
        io.re(12, t377);
        const V t378 = t373 + t376;
        io.re(3, t378);
        const V t379 = c[1] * t331;
        const V t380 = t315 - t379;
        const V t381 = c[0] * t347;
        const V t382 = t380 + t381;
        const V t383 = c[3] * t330;
        const V t384 = c[2] * t346;
        const V t385 = t383 - t384;
        const V t386 = t382 - t385;
        io.re(7, t386);
        const V t387 = t382 + t385;
        io.re(14, t387);
        // spectrum block of 5, multiplier 3
        const V t388 = t329 + t345;
        const V t389 = t388 + t314;
        io.re(5, t389);
        const V t390 = c[0] * t329;
        const V t391 = c[1] * t345;
        const V t392 = t390 - t391;
        const V t393 = t392 + t314;
        const V t394 = c[2] * t328;
        const V t395 = c[3] * t344;
        const V t396 = t394 + t395;
        const V t397 = t393 - t396;
        io.re(10, t397);
        const V t398 = t393 + t396;
        io.re(13, t398);
        const V t399 = c[1] * t329;
        const V t400 = t314 - t399;
        const V t401 = c[0] * t345;
        const V t402 = t400 + t401;
        const V t403 = c[3] * t328;
        const V t404 = c[2] * t344;
        const V t405 = t403 - t404;
        const V t406 = t402 - t405;
        io.re(11, t406);
        const V t407 = t402 + t405;
        io.re(9, t407);
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
        const V t416 = t231 - t285;
        const V t417 = t234 + t288;
        const V t418 = t231 + t285;
        const V t419 = t234 - t288;
        const V t420 = t416 + t276;
        const V t421 = t417 + t279;
        const V t422 = c[4] * t416;
        const V t423 = t276 - t422;
        const V t424 = c[4] * t417;
        const V t425 = t279 - t424;
        const V t426 = c[5] * t418;
        const V t427 = c[5] * t419;
        const V t428 = t423 + t427;
        const V t429 = t425 - t426;
        const V t430 = t423 - t427;
        const V t431 = t425 + t426;
        // complex block of 3
        const V t432 = t297 - t264;
        const V t433 = t267 - t300;
        const V t434 = t264 + t297;
        const V t435 = t267 + t300;
        const V t436 = t432 + t243;
        const V t437 = t433 + t246;
        const V t438 = c[4] * t432;
        const V t439 = t243 - t438;
        const V t440 = c[4] * t433;
        const V t441 = t246 - t440;
        const V t442 = c[5] * t434;
        const V t443 = c[5] * t435;
        const V t444 = t439 + t443;
        const V t445 = t441 + t442;
        const V t446 = t439 - t443;
        const V t447 = t441 - t442;
        // spectrum block of 5
        const V t448 = t421 + t437;
        const V t449 = t448 - t408;
        io.im(1, t449);
        const V t450 = c[0] * t421;
        const V t451 = c[1] * t437;
        const V t452 = t450 - t451;
        const V t453 = t452 - t408;
        const V t454 = c[2] * t420;
        const V t455 = c[3] * t436;
        const V t456 = t454 + t455;
        const V t457 = t453 - t456;
        io.im(2, t457);
        const V t458 = t453 + t456;
        io.minusIm(15, t458);
        const V t459 = c[1] * t421;
        const V t460 = t408 + t459;
        const V t461 = c[0] * t437;
        const V t462 = t461 - t460;
        const V t463 = c[3] * t420;
        const V t464 = c[2] * t436;
        const V t465 = t463 - t464;
        const V t466 = t462 - t465;
        io.im(4, t466);
        const V t467 = t462 + t465;
        io.im(8, t467);
        // spectrum block of 5
        const V t468 = t429 + t445;
        const V t469 = t468 + t414;
        io.im(5, t469);
        const V t470 = c[0] * t429;
        const V t471 = c[1] * t445;
        const V t472 = t470 - t471;
        const V t473 = t472 + t414;
        const V t474 = c[2] * t428;
        const V t475 = c[3] * t444;
        const V t476 = t474 + t475;
        const V t477 = t473 - t476;
        io.im(10, t477);
        const V t478 = t473 + t476;
        io.minusIm(13, t478);
        const V t479 = c[1] * t429;
        const V t480 = t414 - t479;
        const V t481 = c[0] * t445;
        const V t482 = t480 + t481;
        const V t483 = c[3] * t428;
        const V t484 = c[2] * t444;
        const V t485 = t483 - t484;
        const V t486 = t482 - t485;
        io.minusIm(11, t486);
        const V t487 = t482 + t485;
        io.im(9, t487);
        // spectrum block of 5
        const V t488 = t431 + t447;
        const V t489 = t488 + t415;
        io.minusIm(6, t489);
        const V t490 = c[0] * t431;
        const V t491 = c[1] * t447;
        const V t492 = t490 - t491;
        const V t493 = t492 + t415;
        const V t494 = c[2] * t430;
        const V t495 = c[3] * t446;
        const V t496 = t494 + t495;
        const V t497 = t493 - t496;
        io.minusIm(12, t497);
        const V t498 = t493 + t496;
        io.minusIm(3, t498);
        const V t499 = c[1] * t431;
        const V t500 = t415 - t499;
        const V t501 = c[0] * t447;
        const V t502 = t500 + t501;
        const V t503 = c[3] * t430;
        const V t504 = c[2] * t446;
        const V t505 = t503 - t504;
        const V t506 = t502 - t505;
        io.im(7, t506);
        const V t507 = t502 + t505;
        io.im(14, t507);
    }
};

}  // namespace zulg
