// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 57.
// Forward DFT of 57 real points, prime-factor 19, 3.
// 302 additions, 302 subtractions, 362 multiplications (419 with `scale`); 16 outputs negated; 36 constants; 61 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<57> {
    static constexpr int steps = 1023;  // with `scale`
    static constexpr double inverseRoot = 0.13245323570650439;  // 1/sqrt(57), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.011219473461650014,  // c[6]: -Q[1] of 19
        0.48419213608836237,  // c[7]: P[1] of 19
        0.4483141527641826,  // c[8]: -Q[2] of 19
        0.18325479984409965,  // c[9]: -P[2] of 19
        0.4781837436243932,  // c[10]: Q[4] of 19
        0.0768648721323888,  // c[11]: P[4] of 19
        0.48432200167201295,  // c[12]: -Q[5] of 19
        0.0003161186210583505,  // c[13]: -P[5] of 19
        0.19002677048035677,  // c[14]: -Q[7] of 19
        0.4454859456092568,  // c[15]: P[7] of 19
        0.4232102035221754,  // c[16]: Q[8] of 19
        0.235501645151975,  // c[17]: P[8] of 19
        0.8528685319524432,  // c[18]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.1503837331804353,  // c[19]: -sin 2 pi 2/3 times cos 2 pi 2/9
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
        0.8137976813493737,  // c[34]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[35]: -sin 2 pi 2/3 times sin 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3, multiplier 2
        const V x21 = io.in(21);
        const V x33 = io.in(33);
        const V t0 = x21 + x33;
        const V t1 = x21 - x33;
        const V x3 = io.in(3);
        const V t2 = t0 + x3;
        const V t3 = c[0] * t0;
        const V t4 = x3 - t3;
        const V t5 = c[1] * t1;
        // real block of 3, multiplier 2
        const V x27 = io.in(27);
        const V x18 = io.in(18);
        const V t6 = x27 + x18;
        const V t7 = x27 - x18;
        const V x12 = io.in(12);
        const V t8 = t6 + x12;
        const V t9 = c[0] * t6;
        const V t10 = x12 - t9;
        const V t11 = c[1] * t7;
        // real block of 3, multiplier 2
        const V x51 = io.in(51);
        const V x15 = io.in(15);
        const V t12 = x51 + x15;
        const V t13 = x51 - x15;
        const V x48 = io.in(48);
        const V t14 = t12 + x48;
        const V t15 = c[0] * t12;
        const V t16 = x48 - t15;
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
        const V x36 = io.in(36);
        const V x24 = io.in(24);
        const V t52 = x36 + x24;
        const V t53 = x36 - x24;
        const V x54 = io.in(54);
        const V t54 = t52 + x54;
        const V t55 = c[0] * t52;
        const V t56 = x54 - t55;
        const V t57 = c[1] * t53;
        // real block of 3, multiplier 2
        const V x30 = io.in(30);
        const V x39 = io.in(39);
        const V t58 = x30 + x39;
        const V t59 = x30 - x39;
        const V x45 = io.in(45);
        const V t60 = t58 + x45;
        const V t61 = c[0] * t58;
        const V t62 = x45 - t61;
        const V t63 = c[1] * t59;
        // real block of 3, multiplier 2
        const V x6 = io.in(6);
        const V x42 = io.in(42);
        const V t64 = x6 + x42;
        const V t65 = x6 - x42;
        const V x9 = io.in(9);
        const V t66 = t64 + x9;
        const V t67 = c[0] * t64;
        const V t68 = x9 - t67;
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
        // real block of 19, multiplier 3
        const V x0 = io.in(0);
        const V t122 = x0 + t104;
        const V t123 = c[20] * t104;
        const V t124 = x0 - t123;
        const V t125 = c[6] * t121;
        const V t126 = c[7] * t120;
        const V t127 = t126 - t125;
        const V t128 = c[6] * t120;
        const V t129 = c[7] * t121;
        const V t130 = t129 + t128;
        const V t131 = c[8] * t107;
        const V t132 = c[9] * t106;
        const V t133 = t131 - t132;
        const V t134 = c[8] * t106;
        const V t135 = c[9] * t107;
        const V t136 = t135 + t134;
        const V t137 = c[21] * t116;
        const V t138 = c[22] * t117;
        const V t139 = t138 + t137;
        const V t140 = c[10] * t111;
        const V t141 = c[11] * t110;
        const V t142 = t141 + t140;
        const V t143 = c[10] * t110;
        const V t144 = c[11] * t111;
        const V t145 = t143 - t144;
        const V t146 = c[12] * t113;
        const V t147 = c[13] * t112;
        const V t148 = t147 + t146;
        const V t149 = c[12] * t112;
        const V t150 = c[13] * t113;
        const V t151 = t150 - t149;
        const V t152 = c[23] * t115;
        const V t153 = c[24] * t114;
        const V t154 = t153 + t152;
        const V t155 = c[14] * t109;
        const V t156 = c[15] * t108;
        const V t157 = t156 - t155;
        const V t158 = c[14] * t108;
        const V t159 = c[15] * t109;
        const V t160 = t159 + t158;
        const V t161 = c[16] * t119;
        const V t162 = c[17] * t118;
        const V t163 = t162 - t161;
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
        const V t176 = t166 - t145;
        const V t177 = t163 + t142;
        const V t178 = t166 + t145;
        const V t179 = t163 - t142;
        const V t180 = t176 - t136;
        const V t181 = t177 + t133;
        const V t182 = c[0] * t176;
        const V t183 = t136 + t182;
        const V t184 = c[0] * t177;
        const V t185 = t133 - t184;
        const V t186 = c[1] * t178;
        const V t187 = c[1] * t179;
        const V t188 = t187 - t183;
        const V t189 = t185 - t186;
        const V t190 = t183 + t187;
        const V t191 = t185 + t186;
        // spectrum block of 9
        const V t192 = c[28] * t188;
        const V t193 = c[29] * t189;
        const V t194 = t193 - t192;
        const V t195 = c[2] * t190;
        const V t196 = c[3] * t191;
        const V t197 = t196 + t195;
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
        const V t215 = c[18] * t191;
        const V t216 = c[19] * t190;
        const V t217 = t215 - t216;
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
        const V t229 = t151 - t130;
        const V t230 = t127 - t148;
        const V t231 = t130 + t151;
        const V t232 = t228 + t157;
        const V t233 = t229 - t160;
        const V t234 = c[0] * t228;
        const V t235 = t157 - t234;
        const V t236 = c[0] * t229;
        const V t237 = t160 + t236;
        const V t238 = c[1] * t230;
        const V t239 = c[1] * t231;
        const V t240 = t235 - t239;
        const V t241 = t237 + t238;
        const V t242 = t235 + t239;
        const V t243 = t238 - t237;
        // spectrum block of 9, multiplier 2
        const V t244 = c[2] * t242;
        const V t245 = c[3] * t243;
        const V t246 = t245 - t244;
        const V t247 = c[4] * t240;
        const V t248 = c[5] * t241;
        const V t249 = t248 - t247;
        // spectrum block of 3, multiplier 2
        const V t250 = t233 + t220;
        const V t251 = c[0] * t233;
        const V t252 = t220 - t251;
        const V t253 = c[1] * t232;
        const V t254 = t252 - t253;
        const V t255 = t252 + t253;
        // spectrum block of 3, multiplier 2
        const V t256 = t246 + t227;
        const V t257 = c[0] * t246;
        const V t258 = t227 - t257;
        const V t259 = c[19] * t242;
        const V t260 = c[18] * t243;
        const V t261 = t259 + t260;
        const V t262 = t258 - t261;
        const V t263 = t258 + t261;
        // spectrum block of 3, multiplier 2
        const V t264 = t249 + t226;
        const V t265 = c[0] * t249;
        const V t266 = t226 - t265;
        const V t267 = c[34] * t240;
        const V t268 = c[35] * t241;
        const V t269 = t267 + t268;
        const V t270 = t266 + t269;
        const V t271 = t266 - t269;
        // real block of 3, multiplier 2
        const V x40 = io.in(40);
        const V x52 = io.in(52);
        const V t272 = x40 + x52;
        const V t273 = x40 - x52;
        const V x22 = io.in(22);
        const V t274 = t272 + x22;
        const V t275 = c[0] * t272;
        const V t276 = x22 - t275;
        const V t277 = c[1] * t273;
        // real block of 3, multiplier 2
        const V x46 = io.in(46);
        const V x37 = io.in(37);
        const V t278 = x46 + x37;
        const V t279 = x46 - x37;
        const V x31 = io.in(31);
        const V t280 = t278 + x31;
        const V t281 = c[0] * t278;
        const V t282 = x31 - t281;
        const V t283 = c[1] * t279;
        // real block of 3, multiplier 2
        const V x13 = io.in(13);
        const V x34 = io.in(34);
        const V t284 = x13 + x34;
        const V t285 = x13 - x34;
        const V x10 = io.in(10);
        const V t286 = t284 + x10;
        const V t287 = c[0] * t284;
        const V t288 = x10 - t287;
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
        const V x55 = io.in(55);
        const V x43 = io.in(43);
        const V t324 = x55 + x43;
        const V t325 = x55 - x43;
        const V x16 = io.in(16);
        const V t326 = t324 + x16;
        const V t327 = c[0] * t324;
        const V t328 = x16 - t327;
        const V t329 = c[1] * t325;
        // real block of 3, multiplier 2
        const V x49 = io.in(49);
        const V x1 = io.in(1);
        const V t330 = x49 + x1;
        const V t331 = x49 - x1;
        const V x7 = io.in(7);
        const V t332 = t330 + x7;
        const V t333 = c[0] * t330;
        const V t334 = x7 - t333;
        const V t335 = c[1] * t331;
        // real block of 3, multiplier 2
        const V x25 = io.in(25);
        const V x4 = io.in(4);
        const V t336 = x25 + x4;
        const V t337 = x25 - x4;
        const V x28 = io.in(28);
        const V t338 = t336 + x28;
        const V t339 = c[0] * t336;
        const V t340 = x28 - t339;
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
        // real block of 19, multiplier 3
        const V x19 = io.in(19);
        const V t394 = x19 + t376;
        const V t395 = c[20] * t376;
        const V t396 = x19 - t395;
        const V t397 = c[6] * t393;
        const V t398 = c[7] * t392;
        const V t399 = t398 - t397;
        const V t400 = c[6] * t392;
        const V t401 = c[7] * t393;
        const V t402 = t401 + t400;
        const V t403 = c[8] * t379;
        const V t404 = c[9] * t378;
        const V t405 = t403 - t404;
        const V t406 = c[8] * t378;
        const V t407 = c[9] * t379;
        const V t408 = t407 + t406;
        const V t409 = c[21] * t388;
        const V t410 = c[22] * t389;
        const V t411 = t410 + t409;
        const V t412 = c[10] * t383;
        const V t413 = c[11] * t382;
        const V t414 = t413 + t412;
        const V t415 = c[10] * t382;
        const V t416 = c[11] * t383;
        const V t417 = t415 - t416;
        const V t418 = c[12] * t385;
        const V t419 = c[13] * t384;
        const V t420 = t419 + t418;
        const V t421 = c[12] * t384;
        const V t422 = c[13] * t385;
        const V t423 = t422 - t421;
        const V t424 = c[23] * t387;
        const V t425 = c[24] * t386;
        const V t426 = t425 + t424;
        const V t427 = c[14] * t381;
        const V t428 = c[15] * t380;
        const V t429 = t428 - t427;
        const V t430 = c[14] * t380;
        const V t431 = c[15] * t381;
        const V t432 = t431 + t430;
        const V t433 = c[16] * t391;
        const V t434 = c[17] * t390;
        const V t435 = t434 - t433;
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
        const V t448 = t438 - t417;
        const V t449 = t435 + t414;
        const V t450 = t438 + t417;
        const V t451 = t435 - t414;
        const V t452 = t448 - t408;
        const V t453 = t449 + t405;
        const V t454 = c[0] * t448;
        const V t455 = t408 + t454;
        const V t456 = c[0] * t449;
        const V t457 = t405 - t456;
        const V t458 = c[1] * t450;
        const V t459 = c[1] * t451;
        const V t460 = t459 - t455;
        const V t461 = t457 - t458;
        const V t462 = t455 + t459;
        const V t463 = t457 + t458;
        // spectrum block of 9
        const V t464 = c[28] * t460;
        const V t465 = c[29] * t461;
        const V t466 = t465 - t464;
        const V t467 = c[2] * t462;
        const V t468 = c[3] * t463;
        const V t469 = t468 + t467;
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
        const V t487 = c[18] * t463;
        const V t488 = c[19] * t462;
        const V t489 = t487 - t488;
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
        const V t501 = t423 - t402;
        const V t502 = t399 - t420;
        const V t503 = t402 + t423;
        const V t504 = t500 + t429;
        const V t505 = t501 - t432;
        const V t506 = c[0] * t500;
        const V t507 = t429 - t506;
        const V t508 = c[0] * t501;
        const V t509 = t432 + t508;
        const V t510 = c[1] * t502;
        const V t511 = c[1] * t503;
        const V t512 = t507 - t511;
        const V t513 = t509 + t510;
        const V t514 = t507 + t511;
        const V t515 = t510 - t509;
        // spectrum block of 9, multiplier 2
        const V t516 = c[2] * t514;
        const V t517 = c[3] * t515;
        const V t518 = t517 - t516;
        const V t519 = c[4] * t512;
        const V t520 = c[5] * t513;
        const V t521 = t520 - t519;
        // spectrum block of 3, multiplier 2
        const V t522 = t505 + t492;
        const V t523 = c[0] * t505;
        const V t524 = t492 - t523;
        const V t525 = c[1] * t504;
        const V t526 = t524 - t525;
        const V t527 = t524 + t525;
        // spectrum block of 3, multiplier 2
        const V t528 = t518 + t499;
        const V t529 = c[0] * t518;
        const V t530 = t499 - t529;
        const V t531 = c[19] * t514;
        const V t532 = c[18] * t515;
        const V t533 = t531 + t532;
        const V t534 = t530 - t533;
        const V t535 = t530 + t533;
        // spectrum block of 3, multiplier 2
        const V t536 = t521 + t498;
        const V t537 = c[0] * t521;
        const V t538 = t498 - t537;
        const V t539 = c[34] * t512;
        const V t540 = c[35] * t513;
        const V t541 = t539 + t540;
        const V t542 = t538 + t541;
        const V t543 = t538 - t541;
        // real block of 3, multiplier 2
        const V x2 = io.in(2);
        const V x14 = io.in(14);
        const V t544 = x2 + x14;
        const V t545 = x2 - x14;
        const V x41 = io.in(41);
        const V t546 = t544 + x41;
        const V t547 = c[0] * t544;
        const V t548 = x41 - t547;
        const V t549 = c[1] * t545;
        // real block of 3, multiplier 2
        const V x8 = io.in(8);
        const V x56 = io.in(56);
        const V t550 = x8 + x56;
        const V t551 = x8 - x56;
        const V x50 = io.in(50);
        const V t552 = t550 + x50;
        const V t553 = c[0] * t550;
        const V t554 = x50 - t553;
        const V t555 = c[1] * t551;
        // real block of 3, multiplier 2
        const V x32 = io.in(32);
        const V x53 = io.in(53);
        const V t556 = x32 + x53;
        const V t557 = x32 - x53;
        const V x29 = io.in(29);
        const V t558 = t556 + x29;
        const V t559 = c[0] * t556;
        const V t560 = x29 - t559;
        const V t561 = c[1] * t557;
        // real block of 3, multiplier 2
        const V t562 = t552 + t558;
        const V t563 = t552 - t558;
        const V t564 = t562 + t546;
        const V t565 = c[0] * t562;
        const V t566 = t546 - t565;
        const V t567 = c[1] * t563;
        // real block of 9, multiplier 2
        const V t568 = c[2] * t555;
        const V t569 = c[3] * t554;
        const V t570 = t569 + t568;
        const V t571 = c[2] * t554;
        const V t572 = c[3] * t555;
        const V t573 = t572 - t571;
        const V t574 = c[4] * t561;
        const V t575 = c[5] * t560;
        const V t576 = t574 - t575;
        const V t577 = c[4] * t560;
        const V t578 = c[5] * t561;
        const V t579 = t578 + t577;
        // complex block of 3, multiplier 2
        const V t580 = t570 + t576;
        const V t581 = t573 - t579;
        const V t582 = t570 - t576;
        const V t583 = t573 + t579;
        const V t584 = t580 + t548;
        const V t585 = t581 + t549;
        const V t586 = c[0] * t580;
        const V t587 = t548 - t586;
        const V t588 = c[0] * t581;
        const V t589 = t549 - t588;
        const V t590 = c[1] * t582;
        const V t591 = c[1] * t583;
        const V t592 = t587 + t591;
        const V t593 = t589 - t590;
        const V t594 = t587 - t591;
        const V t595 = t589 + t590;
        // real block of 3, multiplier 2
        const V x17 = io.in(17);
        const V x5 = io.in(5);
        const V t596 = x17 + x5;
        const V t597 = x17 - x5;
        const V x35 = io.in(35);
        const V t598 = t596 + x35;
        const V t599 = c[0] * t596;
        const V t600 = x35 - t599;
        const V t601 = c[1] * t597;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V x20 = io.in(20);
        const V t602 = x11 + x20;
        const V t603 = x11 - x20;
        const V x26 = io.in(26);
        const V t604 = t602 + x26;
        const V t605 = c[0] * t602;
        const V t606 = x26 - t605;
        const V t607 = c[1] * t603;
        // real block of 3, multiplier 2
        const V x44 = io.in(44);
        const V x23 = io.in(23);
        const V t608 = x44 + x23;
        const V t609 = x44 - x23;
        const V x47 = io.in(47);
        const V t610 = t608 + x47;
        const V t611 = c[0] * t608;
        const V t612 = x47 - t611;
        const V t613 = c[1] * t609;
        // real block of 3, multiplier 2
        const V t614 = t604 + t610;
        const V t615 = t604 - t610;
        const V t616 = t614 + t598;
        const V t617 = c[0] * t614;
        const V t618 = t598 - t617;
        const V t619 = c[1] * t615;
        // real block of 9, multiplier 2
        const V t620 = c[2] * t607;
        const V t621 = c[3] * t606;
        const V t622 = t621 + t620;
        const V t623 = c[2] * t606;
        const V t624 = c[3] * t607;
        const V t625 = t624 - t623;
        const V t626 = c[4] * t613;
        const V t627 = c[5] * t612;
        const V t628 = t626 - t627;
        const V t629 = c[4] * t612;
        const V t630 = c[5] * t613;
        const V t631 = t630 + t629;
        // complex block of 3, multiplier 2
        const V t632 = t622 + t628;
        const V t633 = t625 - t631;
        const V t634 = t622 - t628;
        const V t635 = t625 + t631;
        const V t636 = t632 + t600;
        const V t637 = t633 + t601;
        const V t638 = c[0] * t632;
        const V t639 = t600 - t638;
        const V t640 = c[0] * t633;
        const V t641 = t601 - t640;
        const V t642 = c[1] * t634;
        const V t643 = c[1] * t635;
        const V t644 = t639 + t643;
        const V t645 = t641 - t642;
        const V t646 = t639 - t643;
        const V t647 = t641 + t642;
        // real block of 2
        const V t648 = t564 + t616;
        const V t649 = t564 - t616;
        // complex block of 2
        const V t650 = t584 + t636;
        const V t651 = t585 + t637;
        const V t652 = t584 - t636;
        const V t653 = t585 - t637;
        // complex block of 2
        const V t654 = t592 + t644;
        const V t655 = t593 + t645;
        const V t656 = t592 - t644;
        const V t657 = t645 - t593;
        // complex block of 2
        const V t658 = t566 + t618;
        const V t659 = t567 + t619;
        const V t660 = t566 - t618;
        const V t661 = t567 - t619;
        // complex block of 2
        const V t662 = t594 + t646;
        const V t663 = t595 + t647;
        const V t664 = t594 - t646;
        const V t665 = t595 - t647;
        // real block of 19, multiplier 3
        const V x38 = io.in(38);
        const V t666 = x38 + t648;
        const V t667 = c[20] * t648;
        const V t668 = x38 - t667;
        const V t669 = c[6] * t665;
        const V t670 = c[7] * t664;
        const V t671 = t670 - t669;
        const V t672 = c[6] * t664;
        const V t673 = c[7] * t665;
        const V t674 = t673 + t672;
        const V t675 = c[8] * t651;
        const V t676 = c[9] * t650;
        const V t677 = t675 - t676;
        const V t678 = c[8] * t650;
        const V t679 = c[9] * t651;
        const V t680 = t679 + t678;
        const V t681 = c[21] * t660;
        const V t682 = c[22] * t661;
        const V t683 = t682 + t681;
        const V t684 = c[10] * t655;
        const V t685 = c[11] * t654;
        const V t686 = t685 + t684;
        const V t687 = c[10] * t654;
        const V t688 = c[11] * t655;
        const V t689 = t687 - t688;
        const V t690 = c[12] * t657;
        const V t691 = c[13] * t656;
        const V t692 = t691 + t690;
        const V t693 = c[12] * t656;
        const V t694 = c[13] * t657;
        const V t695 = t694 - t693;
        const V t696 = c[23] * t659;
        const V t697 = c[24] * t658;
        const V t698 = t697 + t696;
        const V t699 = c[14] * t653;
        const V t700 = c[15] * t652;
        const V t701 = t700 - t699;
        const V t702 = c[14] * t652;
        const V t703 = c[15] * t653;
        const V t704 = t703 + t702;
        const V t705 = c[16] * t663;
        const V t706 = c[17] * t662;
        const V t707 = t706 - t705;
        const V t708 = c[16] * t662;
        const V t709 = c[17] * t663;
        const V t710 = t709 + t708;
        const V t711 = c[25] * t649;
        // spectrum block of 3
        const V t712 = t698 + t668;
        const V t713 = c[0] * t698;
        const V t714 = t668 - t713;
        const V t715 = c[26] * t659;
        const V t716 = c[27] * t658;
        const V t717 = t715 - t716;
        const V t718 = t714 - t717;
        const V t719 = t714 + t717;
        // complex block of 3
        const V t720 = t710 - t689;
        const V t721 = t707 + t686;
        const V t722 = t710 + t689;
        const V t723 = t707 - t686;
        const V t724 = t720 - t680;
        const V t725 = t721 + t677;
        const V t726 = c[0] * t720;
        const V t727 = t680 + t726;
        const V t728 = c[0] * t721;
        const V t729 = t677 - t728;
        const V t730 = c[1] * t722;
        const V t731 = c[1] * t723;
        const V t732 = t731 - t727;
        const V t733 = t729 - t730;
        const V t734 = t727 + t731;
        const V t735 = t729 + t730;
        // spectrum block of 9
        const V t736 = c[28] * t732;
        const V t737 = c[29] * t733;
        const V t738 = t737 - t736;
        const V t739 = c[2] * t734;
        const V t740 = c[3] * t735;
        const V t741 = t740 + t739;
        // spectrum block of 3
        const V t742 = t725 + t712;
        const V t743 = c[0] * t725;
        const V t744 = t712 - t743;
        const V t745 = c[1] * t724;
        const V t746 = t744 - t745;
        const V t747 = t744 + t745;
        // spectrum block of 3
        const V t748 = t738 + t718;
        const V t749 = c[0] * t738;
        const V t750 = t718 - t749;
        const V t751 = c[30] * t732;
        const V t752 = c[31] * t733;
        const V t753 = t751 + t752;
        const V t754 = t750 - t753;
        const V t755 = t750 + t753;
        // spectrum block of 3
        const V t756 = t741 + t719;
        const V t757 = c[0] * t741;
        const V t758 = t719 - t757;
        const V t759 = c[18] * t735;
        const V t760 = c[19] * t734;
        const V t761 = t759 - t760;
        const V t762 = t758 - t761;
        const V t763 = t758 + t761;
        // spectrum block of 3, multiplier 2
        const V t764 = t711 - t683;
        const V t765 = c[0] * t683;
        const V t766 = t765 + t711;
        const V t767 = c[32] * t660;
        const V t768 = c[33] * t661;
        const V t769 = t767 - t768;
        const V t770 = t766 - t769;
        const V t771 = t766 + t769;
        // complex block of 3, multiplier 2
        const V t772 = t671 + t692;
        const V t773 = t695 - t674;
        const V t774 = t671 - t692;
        const V t775 = t674 + t695;
        const V t776 = t772 + t701;
        const V t777 = t773 - t704;
        const V t778 = c[0] * t772;
        const V t779 = t701 - t778;
        const V t780 = c[0] * t773;
        const V t781 = t704 + t780;
        const V t782 = c[1] * t774;
        const V t783 = c[1] * t775;
        const V t784 = t779 - t783;
        const V t785 = t781 + t782;
        const V t786 = t779 + t783;
        const V t787 = t782 - t781;
        // spectrum block of 9, multiplier 2
        const V t788 = c[2] * t786;
        const V t789 = c[3] * t787;
        const V t790 = t789 - t788;
        const V t791 = c[4] * t784;
        const V t792 = c[5] * t785;
        const V t793 = t792 - t791;
        // spectrum block of 3, multiplier 2
        const V t794 = t777 + t764;
        const V t795 = c[0] * t777;
        const V t796 = t764 - t795;
        const V t797 = c[1] * t776;
        const V t798 = t796 - t797;
        const V t799 = t796 + t797;
        // spectrum block of 3, multiplier 2
        const V t800 = t790 + t771;
        const V t801 = c[0] * t790;
        const V t802 = t771 - t801;
        const V t803 = c[19] * t786;
        const V t804 = c[18] * t787;
        const V t805 = t803 + t804;
        const V t806 = t802 - t805;
        const V t807 = t802 + t805;
        // spectrum block of 3, multiplier 2
        const V t808 = t793 + t770;
        const V t809 = c[0] * t793;
        const V t810 = t770 - t809;
        const V t811 = c[34] * t784;
        const V t812 = c[35] * t785;
        const V t813 = t811 + t812;
        const V t814 = t810 + t813;
        const V t815 = t810 - t813;
        // real block of 3
        const V t816 = t394 + t666;
        const V t817 = t394 - t666;
        const V t818 = t816 + t122;
        io.re(0, t818);
        const V t819 = c[0] * t816;
        const V t820 = t122 - t819;
        io.re(19, t820);
        const V t821 = c[1] * t817;
        io.minusIm(19, t821);
        // complex block of 3
        const V t822 = t470 + t742;
        const V t823 = t522 + t794;
        const V t824 = t470 - t742;
        const V t825 = t522 - t794;
        const V t826 = t822 + t198;
        io.re(3, t826);
        const V t827 = t823 + t250;
        io.im(3, t827);
        const V t828 = c[0] * t822;
        const V t829 = t198 - t828;
        const V t830 = c[0] * t823;
        const V t831 = t250 - t830;
        const V t832 = c[1] * t824;
        const V t833 = c[1] * t825;
        const V t834 = t829 + t833;
        io.re(22, t834);
        const V t835 = t831 - t832;
        io.im(22, t835);
        const V t836 = t829 - t833;
        io.re(16, t836);
        const V t837 = t831 + t832;
        io.minusIm(16, t837);
        // complex block of 3
        const V t838 = t491 + t763;
        const V t839 = t535 + t807;
        const V t840 = t491 - t763;
        const V t841 = t807 - t535;
        const V t842 = t838 + t219;
        io.re(6, t842);
        const V t843 = t839 + t263;
        io.minusIm(6, t843);
        const V t844 = c[0] * t838;
        const V t845 = t219 - t844;
        const V t846 = c[0] * t839;
        const V t847 = t846 - t263;
        const V t848 = c[1] * t840;
        const V t849 = c[1] * t841;
        const V t850 = t845 + t849;
        io.re(25, t850);
        const V t851 = t847 - t848;
        io.im(25, t851);
        const V t852 = t845 - t849;
        io.re(13, t852);
        const V t853 = t847 + t848;
        io.minusIm(13, t853);
        // complex block of 3
        const V t854 = t490 + t762;
        const V t855 = t534 + t806;
        const V t856 = t490 - t762;
        const V t857 = t806 - t534;
        const V t858 = t854 + t218;
        io.re(9, t858);
        const V t859 = t855 + t262;
        io.minusIm(9, t859);
        const V t860 = c[0] * t854;
        const V t861 = t218 - t860;
        const V t862 = c[0] * t855;
        const V t863 = t862 - t262;
        const V t864 = c[1] * t856;
        const V t865 = c[1] * t857;
        const V t866 = t861 + t865;
        io.re(28, t866);
        const V t867 = t863 - t864;
        io.im(28, t867);
        const V t868 = t861 - t865;
        io.re(10, t868);
        const V t869 = t863 + t864;
        io.minusIm(10, t869);
        // complex block of 3
        const V t870 = t483 + t755;
        const V t871 = t542 + t814;
        const V t872 = t483 - t755;
        const V t873 = t542 - t814;
        const V t874 = t870 + t211;
        io.re(12, t874);
        const V t875 = t871 + t270;
        io.im(12, t875);
        const V t876 = c[0] * t870;
        const V t877 = t211 - t876;
        const V t878 = c[0] * t871;
        const V t879 = t270 - t878;
        const V t880 = c[1] * t872;
        const V t881 = c[1] * t873;
        const V t882 = t877 + t881;
        io.re(26, t882);
        const V t883 = t879 - t880;
        io.minusIm(26, t883);
        const V t884 = t877 - t881;
        io.re(7, t884);
        const V t885 = t879 + t880;
        io.minusIm(7, t885);
        // complex block of 3
        const V t886 = t484 + t756;
        const V t887 = t528 + t800;
        const V t888 = t484 - t756;
        const V t889 = t528 - t800;
        const V t890 = t886 + t212;
        io.re(15, t890);
        const V t891 = t887 + t256;
        io.im(15, t891);
        const V t892 = c[0] * t886;
        const V t893 = t212 - t892;
        const V t894 = c[0] * t887;
        const V t895 = t256 - t894;
        const V t896 = c[1] * t888;
        const V t897 = c[1] * t889;
        const V t898 = t893 + t897;
        io.re(23, t898);
        const V t899 = t895 - t896;
        io.minusIm(23, t899);
        const V t900 = t893 - t897;
        io.re(4, t900);
        const V t901 = t895 + t896;
        io.minusIm(4, t901);
        // complex block of 3
        const V t902 = t482 + t754;
        const V t903 = t536 + t808;
        const V t904 = t482 - t754;
        const V t905 = t536 - t808;
        const V t906 = t902 + t210;
        io.re(18, t906);
        const V t907 = t903 + t264;
        io.im(18, t907);
        const V t908 = c[0] * t902;
        const V t909 = t210 - t908;
        const V t910 = c[0] * t903;
        const V t911 = t264 - t910;
        const V t912 = c[1] * t904;
        const V t913 = c[1] * t905;
        const V t914 = t909 + t913;
        io.re(20, t914);
        const V t915 = t911 - t912;
        io.minusIm(20, t915);
        const V t916 = t909 - t913;
        io.re(1, t916);
        const V t917 = t911 + t912;
        io.minusIm(1, t917);
        // complex block of 3
        const V t918 = t474 + t746;
        const V t919 = t526 + t798;
        const V t920 = t474 - t746;
        const V t921 = t526 - t798;
        const V t922 = t918 + t202;
        io.re(21, t922);
        const V t923 = t919 + t254;
        io.im(21, t923);
        const V t924 = c[0] * t918;
        const V t925 = t202 - t924;
        const V t926 = c[0] * t919;
        const V t927 = t254 - t926;
        const V t928 = c[1] * t920;
        const V t929 = c[1] * t921;
        const V t930 = t925 + t929;
        io.re(17, t930);
        const V t931 = t927 - t928;
        io.minusIm(17, t931);
        const V t932 = t925 - t929;
        io.re(2, t932);
        const V t933 = t927 + t928;
        io.im(2, t933);
        // complex block of 3
        const V t934 = t475 + t747;
        const V t935 = t527 + t799;
        const V t936 = t475 - t747;
        const V t937 = t799 - t527;
        const V t938 = t934 + t203;
        io.re(24, t938);
        const V t939 = t935 + t255;
        io.minusIm(24, t939);
        const V t940 = c[0] * t934;
        const V t941 = t203 - t940;
        const V t942 = c[0] * t935;
        const V t943 = t942 - t255;
        const V t944 = c[1] * t936;
        const V t945 = c[1] * t937;
        const V t946 = t941 + t945;
        io.re(14, t946);
        const V t947 = t943 - t944;
        io.minusIm(14, t947);
        const V t948 = t941 - t945;
        io.re(5, t948);
        const V t949 = t943 + t944;
        io.im(5, t949);
        // complex block of 3
        const V t950 = t476 + t748;
        const V t951 = t543 + t815;
        const V t952 = t476 - t748;
        const V t953 = t543 - t815;
        const V t954 = t950 + t204;
        io.re(27, t954);
        const V t955 = t951 + t271;
        io.im(27, t955);
        const V t956 = c[0] * t950;
        const V t957 = t204 - t956;
        const V t958 = c[0] * t951;
        const V t959 = t271 - t958;
        const V t960 = c[1] * t952;
        const V t961 = c[1] * t953;
        const V t962 = t957 + t961;
        io.re(11, t962);
        const V t963 = t959 - t960;
        io.minusIm(11, t963);
        const V t964 = t957 - t961;
        io.re(8, t964);
        const V t965 = t959 + t960;
        io.im(8, t965);
    }
};

}  // namespace zulg
