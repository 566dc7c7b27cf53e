// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 38.
// Forward DFT of 38 real points, prime-factor 19, 2.
// 183 additions, 183 subtractions, 216 multiplications (254 with `scale`); 12 outputs negated; 36 constants; 42 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<38> {
    static constexpr int steps = 620;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.4137129534343489,  // c[6]: -Q[1] of 19
        0.25181241707905544,  // c[7]: -P[1] of 19
        0.06545376435166843,  // c[8]: Q[2] of 19
        0.4798788450919296,  // c[9]: P[2] of 19
        0.3056588037374879,  // c[10]: -Q[4] of 19
        0.37568683358927524,  // c[11]: P[4] of 19
        0.24188723407956064,  // c[12]: Q[5] of 19
        0.4195932163702218,  // c[13]: P[5] of 19
        0.2907887606863707,  // c[14]: -Q[7] of 19
        0.3873109834397322,  // c[15]: -P[7] of 19
        0.007654694426448971,  // c[16]: -Q[8] of 19
        0.4842616099669739,  // c[17]: -P[8] of 19
        0.1503837331804353,  // c[18]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[19]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.05555555555555555,  // c[20]: 1/18
        0.3937592850674352,  // c[21]: -Q[3] of 19
        0.28199561460730244,  // c[22]: P[3] of 19
        0.10231284930367265,  // c[23]: -Q[6] of 19
        0.47339199623771827,  // c[24]: P[6] of 19
        0.2421610524189263,  // c[25]: beta of 19
        0.4099694946900914,  // c[26]: -sin 2 pi 2/3 times P[6] of 19
        0.08860552663054953,  // c[27]: -sin 2 pi 2/3 times -Q[6] of 19
        0.6427876096865394,  // c[28]: -sin 2 pi 8/9
        0.766044443118978,  // c[29]: cos 2 pi 8/9
        0.6634139481689384,  // c[30]: -sin 2 pi 2/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[31]: -sin 2 pi 2/3 times -sin 2 pi 8/9
        0.24421536600573002,  // c[32]: -sin 2 pi 2/3 times P[3] of 19
        0.3410055438443974,  // c[33]: -sin 2 pi 2/3 times -Q[3] of 19
        0.29619813272602386,  // c[34]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[35]: -sin 2 pi 2/3 times -cos 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x22 = io.in(22);
        const V t0 = x14 + x22;
        const V t1 = x14 - x22;
        const V x2 = io.in(2);
        const V t2 = t0 + x2;
        const V t3 = c[0] * t0;
        const V t4 = x2 - t3;
        const V t5 = c[1] * t1;
        // real block of 3, multiplier 2
        const V x18 = io.in(18);
        const V x12 = io.in(12);
        const V t6 = x18 + x12;
        const V t7 = x18 - x12;
        const V x8 = io.in(8);
        const V t8 = t6 + x8;
        const V t9 = c[0] * t6;
        const V t10 = x8 - t9;
        const V t11 = c[1] * t7;
        // real block of 3, multiplier 2
        const V x34 = io.in(34);
        const V x10 = io.in(10);
        const V t12 = x34 + x10;
        const V t13 = x34 - x10;
        const V x32 = io.in(32);
        const V t14 = t12 + x32;
        const V t15 = c[0] * t12;
        const V t16 = x32 - t15;
        const V t17 = c[1] * t13;
        // real block of 3, multiplier 2
        const V t18 = t8 + t14;
        const V t19 = t8 - t14;
        const V t20 = t18 + t2;
        const V t21 = c[0] * t18;
        const V t22 = t2 - t21;
        const V t23 = c[1] * t19;
        // real block of 9, multiplier 2
        const V t24 = c[2] * t11;
        const V t25 = c[3] * t10;
        const V t26 = t25 + t24;
        const V t27 = c[2] * t10;
        const V t28 = c[3] * t11;
        const V t29 = t28 - t27;
        const V t30 = c[4] * t17;
        const V t31 = c[5] * t16;
        const V t32 = t30 - t31;
        const V t33 = c[4] * t16;
        const V t34 = c[5] * t17;
        const V t35 = t34 + t33;
        // complex block of 3, multiplier 2
        const V t36 = t26 + t32;
        const V t37 = t29 - t35;
        const V t38 = t26 - t32;
        const V t39 = t29 + t35;
        const V t40 = t36 + t4;
        const V t41 = t37 + t5;
        const V t42 = c[0] * t36;
        const V t43 = t4 - t42;
        const V t44 = c[0] * t37;
        const V t45 = t5 - t44;
        const V t46 = c[1] * t38;
        const V t47 = c[1] * t39;
        const V t48 = t43 + t47;
        const V t49 = t45 - t46;
        const V t50 = t43 - t47;
        const V t51 = t45 + t46;
        // real block of 3, multiplier 2
        const V x24 = io.in(24);
        const V x16 = io.in(16);
        const V t52 = x24 + x16;
        const V t53 = x24 - x16;
        const V x36 = io.in(36);
        const V t54 = t52 + x36;
        const V t55 = c[0] * t52;
        const V t56 = x36 - t55;
        const V t57 = c[1] * t53;
        // real block of 3, multiplier 2
        const V x20 = io.in(20);
        const V x26 = io.in(26);
        const V t58 = x20 + x26;
        const V t59 = x20 - x26;
        const V x30 = io.in(30);
        const V t60 = t58 + x30;
        const V t61 = c[0] * t58;
        const V t62 = x30 - t61;
        const V t63 = c[1] * t59;
        // real block of 3, multiplier 2
        const V x4 = io.in(4);
        const V x28 = io.in(28);
        const V t64 = x4 + x28;
        const V t65 = x4 - x28;
        const V x6 = io.in(6);
        const V t66 = t64 + x6;
        const V t67 = c[0] * t64;
        const V t68 = x6 - t67;
        const V t69 = c[1] * t65;
        // real block of 3, multiplier 2
        const V t70 = t60 + t66;
        const V t71 = t60 - t66;
        const V t72 = t70 + t54;
        const V t73 = c[0] * t70;
        const V t74 = t54 - t73;
        const V t75 = c[1] * t71;
        // real block of 9, multiplier 2
        const V t76 = c[2] * t63;
        const V t77 = c[3] * t62;
        const V t78 = t77 + t76;
        const V t79 = c[2] * t62;
        const V t80 = c[3] * t63;
        const V t81 = t80 - t79;
        const V t82 = c[4] * t69;
        const V t83 = c[5] * t68;
        const V t84 = t82 - t83;
        const V t85 = c[4] * t68;
        const V t86 = c[5] * t69;
        const V t87 = t86 + t85;
        // complex block of 3, multiplier 2
        const V t88 = t78 + t84;
        const V t89 = t81 - t87;
        const V t90 = t78 - t84;
        const V t91 = t81 + t87;
        const V t92 = t88 + t56;
        const V t93 = t89 + t57;
        const V t94 = c[0] * t88;
        const V t95 = t56 - t94;
        const V t96 = c[0] * t89;
        const V t97 = t57 - t96;
        const V t98 = c[1] * t90;
        const V t99 = c[1] * t91;
        const V t100 = t95 + t99;
        const V t101 = t97 - t98;
        const V t102 = t95 - t99;
        const V t103 = t97 + t98;
        // real block of 2
        const V t104 = t20 + t72;
        const V t105 = t20 - t72;
        // complex block of 2
        const V t106 = t40 + t92;
        const V t107 = t41 + t93;
        const V t108 = t40 - t92;
        const V t109 = t41 - t93;
        // complex block of 2
        const V t110 = t48 + t100;
        const V t111 = t49 + t101;
        const V t112 = t48 - t100;
        const V t113 = t101 - t49;
        // complex block of 2
        const V t114 = t22 + t74;
        const V t115 = t23 + t75;
        const V t116 = t22 - t74;
        const V t117 = t23 - t75;
        // complex block of 2
        const V t118 = t50 + t102;
        const V t119 = t51 + t103;
        const V t120 = t50 - t102;
        const V t121 = t51 - t103;
        // real block of 19, multiplier 2
        const V x0 = io.in(0);
        const V t122 = x0 + t104;
        const V t123 = c[20] * t104;
        const V t124 = x0 - t123;
        const V t125 = c[6] * t121;
        const V t126 = c[7] * t120;
        const V t127 = t126 + t125;
        const V t128 = c[6] * t120;
        const V t129 = c[7] * t121;
        const V t130 = t129 - t128;
        const V t131 = c[8] * t107;
        const V t132 = c[9] * t106;
        const V t133 = t132 - t131;
        const V t134 = c[8] * t106;
        const V t135 = c[9] * t107;
        const V t136 = t135 + t134;
        const V t137 = c[21] * t116;
        const V t138 = c[22] * t117;
        const V t139 = t138 + t137;
        const V t140 = c[10] * t111;
        const V t141 = c[11] * t110;
        const V t142 = t141 - t140;
        const V t143 = c[10] * t110;
        const V t144 = c[11] * t111;
        const V t145 = t144 + t143;
        const V t146 = c[12] * t113;
        const V t147 = c[13] * t112;
        const V t148 = t147 + t146;
        const V t149 = c[12] * t112;
        const V t150 = c[13] * t113;
        const V t151 = t149 - t150;
        const V t152 = c[23] * t115;
        const V t153 = c[24] * t114;
        const V t154 = t153 + t152;
        const V t155 = c[14] * t109;
        const V t156 = c[15] * t108;
        const V t157 = t156 + t155;
        const V t158 = c[14] * t108;
        const V t159 = c[15] * t109;
        const V t160 = t159 - t158;
        const V t161 = c[16] * t119;
        const V t162 = c[17] * t118;
        const V t163 = t161 - t162;
        const V t164 = c[16] * t118;
        const V t165 = c[17] * t119;
        const V t166 = t165 + t164;
        const V t167 = c[25] * t105;
        // spectrum block of 3
        const V t168 = t154 + t124;
        const V t169 = c[0] * t154;
        const V t170 = t124 - t169;
        const V t171 = c[26] * t115;
        const V t172 = c[27] * t114;
        const V t173 = t171 - t172;
        const V t174 = t170 - t173;
        const V t175 = t170 + t173;
        // complex block of 3
        const V t176 = t145 - t166;
        const V t177 = t163 + t142;
        const V t178 = t166 + t145;
        const V t179 = t163 - t142;
        const V t180 = t176 + t136;
        const V t181 = t177 + t133;
        const V t182 = c[0] * t176;
        const V t183 = t136 - t182;
        const V t184 = c[0] * t177;
        const V t185 = t133 - t184;
        const V t186 = c[1] * t178;
        const V t187 = c[1] * t179;
        const V t188 = t183 + t187;
        const V t189 = t185 + t186;
        const V t190 = t183 - t187;
        const V t191 = t185 - t186;
        // spectrum block of 9
        const V t192 = c[28] * t188;
        const V t193 = c[29] * t189;
        const V t194 = t193 - t192;
        const V t195 = c[2] * t190;
        const V t196 = c[3] * t191;
        const V t197 = t196 - t195;
        // spectrum block of 3
        const V t198 = t181 + t168;
        const V t199 = c[0] * t181;
        const V t200 = t168 - t199;
        const V t201 = c[1] * t180;
        const V t202 = t200 - t201;
        const V t203 = t200 + t201;
        // spectrum block of 3
        const V t204 = t194 + t174;
        const V t205 = c[0] * t194;
        const V t206 = t174 - t205;
        const V t207 = c[30] * t188;
        const V t208 = c[31] * t189;
        const V t209 = t207 + t208;
        const V t210 = t206 - t209;
        const V t211 = t206 + t209;
        // spectrum block of 3
        const V t212 = t197 + t175;
        const V t213 = c[0] * t197;
        const V t214 = t175 - t213;
        const V t215 = c[18] * t190;
        const V t216 = c[19] * t191;
        const V t217 = t215 + t216;
        const V t218 = t214 - t217;
        const V t219 = t214 + t217;
        // spectrum block of 3, multiplier 2
        const V t220 = t167 - t139;
        const V t221 = c[0] * t139;
        const V t222 = t221 + t167;
        const V t223 = c[32] * t116;
        const V t224 = c[33] * t117;
        const V t225 = t223 - t224;
        const V t226 = t222 - t225;
        const V t227 = t222 + t225;
        // complex block of 3, multiplier 2
        const V t228 = t127 + t148;
        const V t229 = t130 + t151;
        const V t230 = t148 - t127;
        const V t231 = t130 - t151;
        const V t232 = t228 + t157;
        const V t233 = t229 + t160;
        const V t234 = c[0] * t228;
        const V t235 = t234 - t157;
        const V t236 = c[0] * t229;
        const V t237 = t160 - t236;
        const V t238 = c[1] * t230;
        const V t239 = c[1] * t231;
        const V t240 = t235 + t239;
        const V t241 = t237 - t238;
        const V t242 = t235 - t239;
        const V t243 = t237 + t238;
        // spectrum block of 9, multiplier 2
        const V t244 = c[2] * t242;
        const V t245 = c[3] * t243;
        const V t246 = t245 - t244;
        const V t247 = c[4] * t240;
        const V t248 = c[5] * t241;
        const V t249 = t248 + t247;
        // spectrum block of 3, multiplier 2
        const V t250 = t233 + t220;
        const V t251 = c[0] * t233;
        const V t252 = t220 - t251;
        const V t253 = c[1] * t232;
        const V t254 = t252 + t253;
        const V t255 = t252 - t253;
        // spectrum block of 3, multiplier 2
        const V t256 = t246 + t227;
        const V t257 = c[0] * t246;
        const V t258 = t227 - t257;
        const V t259 = c[18] * t242;
        const V t260 = c[19] * t243;
        const V t261 = t259 + t260;
        const V t262 = t258 - t261;
        const V t263 = t258 + t261;
        // spectrum block of 3, multiplier 2
        const V t264 = t226 - t249;
        const V t265 = c[0] * t249;
        const V t266 = t265 + t226;
        const V t267 = c[34] * t241;
        const V t268 = c[35] * t240;
        const V t269 = t267 - t268;
        const V t270 = t266 - t269;
        const V t271 = t266 + t269;
        // real block of 3, multiplier 2
        const V x33 = io.in(33);
        const V x3 = io.in(3);
        const V t272 = x33 + x3;
        const V t273 = x33 - x3;
        const V x21 = io.in(21);
        const V t274 = t272 + x21;
        const V t275 = c[0] * t272;
        const V t276 = x21 - t275;
        const V t277 = c[1] * t273;
        // real block of 3, multiplier 2
        const V x37 = io.in(37);
        const V x31 = io.in(31);
        const V t278 = x37 + x31;
        const V t279 = x37 - x31;
        const V x27 = io.in(27);
        const V t280 = t278 + x27;
        const V t281 = c[0] * t278;
        const V t282 = x27 - t281;
        const V t283 = c[1] * t279;
        // real block of 3, multiplier 2
        const V x15 = io.in(15);
        const V x29 = io.in(29);
        const V t284 = x15 + x29;
        const V t285 = x15 - x29;
        const V x13 = io.in(13);
        const V t286 = t284 + x13;
        const V t287 = c[0] * t284;
        const V t288 = x13 - t287;
        const V t289 = c[1] * t285;
        // real block of 3, multiplier 2
        const V t290 = t280 + t286;
        const V t291 = t280 - t286;
        const V t292 = t290 + t274;
        const V t293 = c[0] * t290;
        const V t294 = t274 - t293;
        const V t295 = c[1] * t291;
        // real block of 9, multiplier 2
        const V t296 = c[2] * t283;
        const V t297 = c[3] * t282;
        const V t298 = t297 + t296;
        const V t299 = c[2] * t282;
        const V t300 = c[3] * t283;
        const V t301 = t300 - t299;
        const V t302 = c[4] * t289;
        const V t303 = c[5] * t288;
        const V t304 = t302 - t303;
        const V t305 = c[4] * t288;
        const V t306 = c[5] * t289;
        const V t307 = t306 + t305;
        // complex block of 3, multiplier 2
        const V t308 = t298 + t304;
        const V t309 = t301 - t307;
        const V t310 = t298 - t304;
        const V t311 = t301 + t307;
        const V t312 = t308 + t276;
        const V t313 = t309 + t277;
        const V t314 = c[0] * t308;
        const V t315 = t276 - t314;
        const V t316 = c[0] * t309;
        const V t317 = t277 - t316;
        const V t318 = c[1] * t310;
        const V t319 = c[1] * t311;
        const V t320 = t315 + t319;
        const V t321 = t317 - t318;
        const V t322 = t315 - t319;
        const V t323 = t317 + t318;
        // real block of 3, multiplier 2
        const V x5 = io.in(5);
        const V x35 = io.in(35);
        const V t324 = x5 + x35;
        const V t325 = x5 - x35;
        const V x17 = io.in(17);
        const V t326 = t324 + x17;
        const V t327 = c[0] * t324;
        const V t328 = x17 - t327;
        const V t329 = c[1] * t325;
        // real block of 3, multiplier 2
        const V x1 = io.in(1);
        const V x7 = io.in(7);
        const V t330 = x1 + x7;
        const V t331 = x1 - x7;
        const V x11 = io.in(11);
        const V t332 = t330 + x11;
        const V t333 = c[0] * t330;
        const V t334 = x11 - t333;
        const V t335 = c[1] * t331;
        // real block of 3, multiplier 2
        const V x23 = io.in(23);
        const V x9 = io.in(9);
        const V t336 = x23 + x9;
        const V t337 = x23 - x9;
        const V x25 = io.in(25);
        const V t338 = t336 + x25;
        const V t339 = c[0] * t336;
        const V t340 = x25 - t339;
        const V t341 = c[1] * t337;
        // real block of 3, multiplier 2
        const V t342 = t332 + t338;
        const V t343 = t332 - t338;
        const V t344 = t342 + t326;
        const V t345 = c[0] * t342;
        const V t346 = t326 - t345;
        const V t347 = c[1] * t343;
        // real block of 9, multiplier 2
        const V t348 = c[2] * t335;
        const V t349 = c[3] * t334;
        const V t350 = t349 + t348;
        const V t351 = c[2] * t334;
        const V t352 = c[3] * t335;
        const V t353 = t352 - t351;
        const V t354 = c[4] * t341;
        const V t355 = c[5] * t340;
        const V t356 = t354 - t355;
        const V t357 = c[4] * t340;
        const V t358 = c[5] * t341;
        const V t359 = t358 + t357;
        // complex block of 3, multiplier 2
        const V t360 = t350 + t356;
        const V t361 = t353 - t359;
        const V t362 = t350 - t356;
        const V t363 = t353 + t359;
        const V t364 = t360 + t328;
        const V t365 = t361 + t329;
        const V t366 = c[0] * t360;
        const V t367 = t328 - t366;
        const V t368 = c[0] * t361;
        const V t369 = t329 - t368;
        const V t370 = c[1] * t362;
        const V t371 = c[1] * t363;
        const V t372 = t367 + t371;
        const V t373 = t369 - t370;
        const V t374 = t367 - t371;
        const V t375 = t369 + t370;
        // real block of 2
        const V t376 = t292 + t344;
        const V t377 = t292 - t344;
        // complex block of 2
        const V t378 = t312 + t364;
        const V t379 = t313 + t365;
        const V t380 = t312 - t364;
        const V t381 = t313 - t365;
        // complex block of 2
        const V t382 = t320 + t372;
        const V t383 = t321 + t373;
        const V t384 = t320 - t372;
        const V t385 = t373 - t321;
        // complex block of 2
        const V t386 = t294 + t346;
        const V t387 = t295 + t347;
        const V t388 = t294 - t346;
        const V t389 = t295 - t347;
        // complex block of 2
        const V t390 = t322 + t374;
        const V t391 = t323 + t375;
        const V t392 = t322 - t374;
        const V t393 = t323 - t375;
        // real block of 19, multiplier 2
        const V x19 = io.in(19);
        const V t394 = x19 + t376;
        const V t395 = c[20] * t376;
        const V t396 = x19 - t395;
        const V t397 = c[6] * t393;
        const V t398 = c[7] * t392;
        const V t399 = t398 + t397;
        const V t400 = c[6] * t392;
        const V t401 = c[7] * t393;
        const V t402 = t401 - t400;
        const V t403 = c[8] * t379;
        const V t404 = c[9] * t378;
        const V t405 = t404 - t403;
        const V t406 = c[8] * t378;
        const V t407 = c[9] * t379;
        const V t408 = t407 + t406;
        const V t409 = c[21] * t388;
        const V t410 = c[22] * t389;
        const V t411 = t410 + t409;
        const V t412 = c[10] * t383;
        const V t413 = c[11] * t382;
        const V t414 = t413 - t412;
        const V t415 = c[10] * t382;
        const V t416 = c[11] * t383;
        const V t417 = t416 + t415;
        const V t418 = c[12] * t385;
        const V t419 = c[13] * t384;
        const V t420 = t419 + t418;
        const V t421 = c[12] * t384;
        const V t422 = c[13] * t385;
        const V t423 = t421 - t422;
        const V t424 = c[23] * t387;
        const V t425 = c[24] * t386;
        const V t426 = t425 + t424;
        const V t427 = c[14] * t381;
        const V t428 = c[15] * t380;
        const V t429 = t428 + t427;
        const V t430 = c[14] * t380;
        const V t431 = c[15] * t381;
        const V t432 = t431 - t430;
        const V t433 = c[16] * t391;
        const V t434 = c[17] * t390;
        const V t435 = t433 - t434;
        const V t436 = c[16] * t390;
        const V t437 = c[17] * t391;
        const V t438 = t437 + t436;
        const V t439 = c[25] * t377;
        // spectrum block of 3
        const V t440 = t426 + t396;
        const V t441 = c[0] * t426;
        const V t442 = t396 - t441;
        const V t443 = c[26] * t387;
        const V t444 = c[27] * t386;
        const V t445 = t443 - t444;
        const V t446 = t442 - t445;
        const V t447 = t442 + t445;
        // complex block of 3
        const V t448 = t417 - t438;
        const V t449 = t435 + t414;
        const V t450 = t438 + t417;
        const V t451 = t435 - t414;
        const V t452 = t448 + t408;
        const V t453 = t449 + t405;
        const V t454 = c[0] * t448;
        const V t455 = t408 - t454;
        const V t456 = c[0] * t449;
        const V t457 = t405 - t456;
        const V t458 = c[1] * t450;
        const V t459 = c[1] * t451;
        const V t460 = t455 + t459;
        const V t461 = t457 + t458;
        const V t462 = t455 - t459;
        const V t463 = t457 - t458;
        // spectrum block of 9
        const V t464 = c[28] * t460;
        const V t465 = c[29] * t461;
        const V t466 = t465 - t464;
        const V t467 = c[2] * t462;
        const V t468 = c[3] * t463;
        const V t469 = t468 - t467;
        // spectrum block of 3
        const V t470 = t453 + t440;
        const V t471 = c[0] * t453;
        const V t472 = t440 - t471;
        const V t473 = c[1] * t452;
        const V t474 = t472 - t473;
        const V t475 = t472 + t473;
        // spectrum block of 3
        const V t476 = t466 + t446;
        const V t477 = c[0] * t466;
        const V t478 = t446 - t477;
        const V t479 = c[30] * t460;
        const V t480 = c[31] * t461;
        const V t481 = t479 + t480;
        const V t482 = t478 - t481;
        const V t483 = t478 + t481;
        // spectrum block of 3
        const V t484 = t469 + t447;
        const V t485 = c[0] * t469;
        const V t486 = t447 - t485;
        const V t487 = c[18] * t462;
        const V t488 = c[19] * t463;
        const V t489 = t487 + t488;
        const V t490 = t486 - t489;
        const V t491 = t486 + t489;
        // spectrum block of 3, multiplier 2
        const V t492 = t439 - t411;
        const V t493 = c[0] * t411;
        const V t494 = t493 + t439;
        const V t495 = c[32] * t388;
        const V t496 = c[33] * t389;
        const V t497 = t495 - t496;
        const V t498 = t494 - t497;
        const V t499 = t494 + t497;
        // complex block of 3, multiplier 2
        const V t500 = t399 + t420;
        const V t501 = t402 + t423;
        const V t502 = t420 - t399;
        const V t503 = t402 - t423;
        const V t504 = t500 + t429;
        const V t505 = t501 + t432;
        const V t506 = c[0] * t500;
        const V t507 = t506 - t429;
        const V t508 = c[0] * t501;
        const V t509 = t432 - t508;
        const V t510 = c[1] * t502;
        const V t511 = c[1] * t503;
        const V t512 = t507 + t511;
        const V t513 = t509 - t510;
        const V t514 = t507 - t511;
        const V t515 = t509 + t510;
        // spectrum block of 9, multiplier 2
        const V t516 = c[2] * t514;
        const V t517 = c[3] * t515;
        const V t518 = t517 - t516;
        const V t519 = c[4] * t512;
        const V t520 = c[5] * t513;
        const V t521 = t520 + t519;
        // spectrum block of 3, multiplier 2
        const V t522 = t505 + t492;
        const V t523 = c[0] * t505;
        const V t524 = t492 - t523;
        const V t525 = c[1] * t504;
        const V t526 = t524 + t525;
        const V t527 = t524 - t525;
        // spectrum block of 3, multiplier 2
        const V t528 = t518 + t499;
        const V t529 = c[0] * t518;
        const V t530 = t499 - t529;
        const V t531 = c[18] * t514;
        const V t532 = c[19] * t515;
        const V t533 = t531 + t532;
        const V t534 = t530 - t533;
        const V t535 = t530 + t533;
        // spectrum block of 3, multiplier 2
        const V t536 = t498 - t521;
        const V t537 = c[0] * t521;
        const V t538 = t537 + t498;
        const V t539 = c[34] * t513;
        const V t540 = c[35] * t512;
        const V t541 = t539 - t540;
        const V t542 = t538 - t541;
        const V t543 = t538 + t541;
        // real block of 2
        const V t544 = t122 + t394;
        io.re(0, t544);
        const V t545 = t122 - t394;
        io.re(19, t545);
        // complex block of 2
        const V t546 = t198 + t470;
        io.re(2, t546);
        const V t547 = t250 + t522;
        io.im(2, t547);
        const V t548 = t198 - t470;
        io.re(17, t548);
        const V t549 = t250 - t522;
        io.minusIm(17, t549);
        // complex block of 2
        const V t550 = t219 + t491;
        io.re(4, t550);
        const V t551 = t263 + t535;
        io.minusIm(4, t551);
        const V t552 = t219 - t491;
        io.re(15, t552);
        const V t553 = t535 - t263;
        io.minusIm(15, t553);
        // complex block of 2
        const V t554 = t218 + t490;
        io.re(6, t554);
        const V t555 = t262 + t534;
        io.minusIm(6, t555);
        const V t556 = t218 - t490;
        io.re(13, t556);
        const V t557 = t534 - t262;
        io.minusIm(13, t557);
        // complex block of 2
        const V t558 = t211 + t483;
        io.re(8, t558);
        const V t559 = t270 + t542;
        io.im(8, t559);
        const V t560 = t211 - t483;
        io.re(11, t560);
        const V t561 = t270 - t542;
        io.minusIm(11, t561);
        // complex block of 2
        const V t562 = t212 + t484;
        io.re(10, t562);
        const V t563 = t256 + t528;
        io.im(10, t563);
        const V t564 = t212 - t484;
        io.re(9, t564);
        const V t565 = t256 - t528;
        io.minusIm(9, t565);
        // complex block of 2
        const V t566 = t210 + t482;
        io.re(12, t566);
        const V t567 = t264 + t536;
        io.im(12, t567);
        const V t568 = t210 - t482;
        io.re(7, t568);
        const V t569 = t264 - t536;
        io.minusIm(7, t569);
        // complex block of 2
        const V t570 = t202 + t474;
        io.re(14, t570);
        const V t571 = t254 + t526;
        io.im(14, t571);
        const V t572 = t202 - t474;
        io.re(5, t572);
        const V t573 = t254 - t526;
        io.minusIm(5, t573);
        // complex block of 2
        const V t574 = t203 + t475;
        io.re(16, t574);
        const V t575 = t255 + t527;
        io.minusIm(16, t575);
        const V t576 = t203 - t475;
        io.re(3, t576);
        const V t577 = t527 - t255;
        io.minusIm(3, t577);
        // complex block of 2
        const V t578 = t204 + t476;
        io.re(18, t578);
        const V t579 = t271 + t543;
        io.im(18, t579);
        const V t580 = t204 - t476;
        io.re(1, t580);
        const V t581 = t271 - t543;
        io.minusIm(1, t581);
    }
};

}  // namespace zulg
