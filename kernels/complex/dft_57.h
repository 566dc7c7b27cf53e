// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 57.
// Complex DFT of 57 points, prime-factor, order 19, 3.
// 660 additions, 660 subtractions, 736 multiplications (850 with `scale`); 28 constants; 117 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<57> {
    static constexpr int steps = 2170;  // with `scale`
    static constexpr double inverseRoot = 0.13245323570650439;  // 1/sqrt(57), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.48419213608836237,  // c[6]: P[1] of 19
        0.011219473461650014,  // c[7]: Q[1] of 19
        0.4483141527641826,  // c[8]: -Q[2] of 19
        0.18325479984409965,  // c[9]: -P[2] of 19
        0.28199561460730244,  // c[10]: P[3] of 19
        0.3937592850674352,  // c[11]: Q[3] of 19
        0.4781837436243932,  // c[12]: Q[4] of 19
        0.0768648721323888,  // c[13]: P[4] of 19
        0.0003161186210583505,  // c[14]: -P[5] of 19
        0.48432200167201295,  // c[15]: Q[5] of 19
        0.10231284930367265,  // c[16]: -Q[6] of 19
        0.47339199623771827,  // c[17]: P[6] of 19
        0.4454859456092568,  // c[18]: P[7] of 19
        0.19002677048035677,  // c[19]: Q[7] of 19
        0.4232102035221754,  // c[20]: Q[8] of 19
        0.235501645151975,  // c[21]: P[8] of 19
        0.8528685319524432,  // c[22]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.1503837331804353,  // c[23]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.29619813272602386,  // c[24]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[25]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: -beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x3r = io.re(3);
        const V x54r = io.re(54);
        const V t0 = x3r + x54r;
        const V t1 = x3r - x54r;
        // real block of 2
        const V x12r = io.re(12);
        const V x45r = io.re(45);
        const V t2 = x12r + x45r;
        const V t3 = x12r - x45r;
        // real block of 2
        const V x48r = io.re(48);
        const V x9r = io.re(9);
        const V t4 = x48r + x9r;
        const V t5 = x48r - x9r;
        // real block of 2
        const V x21r = io.re(21);
        const V x36r = io.re(36);
        const V t6 = x21r + x36r;
        const V t7 = x21r - x36r;
        // real block of 2
        const V x27r = io.re(27);
        const V x30r = io.re(30);
        const V t8 = x27r + x30r;
        const V t9 = x27r - x30r;
        // real block of 2
        const V x51r = io.re(51);
        const V x6r = io.re(6);
        const V t10 = x51r + x6r;
        const V t11 = x51r - x6r;
        // real block of 2
        const V x33r = io.re(33);
        const V x24r = io.re(24);
        const V t12 = x33r + x24r;
        const V t13 = x33r - x24r;
        // real block of 2
        const V x18r = io.re(18);
        const V x39r = io.re(39);
        const V t14 = x18r + x39r;
        const V t15 = x18r - x39r;
        // real block of 2
        const V x15r = io.re(15);
        const V x42r = io.re(42);
        const V t16 = x15r + x42r;
        const V t17 = x15r - x42r;
        // real block of 3, multiplier 2
        const V t18 = t6 + t12;
        const V t19 = t6 - t12;
        const V t20 = t18 + t0;
        const V t21 = c[0] * t18;
        const V t22 = t0 - t21;
        const V t23 = c[1] * t19;
        // real block of 3, multiplier 2
        const V t24 = t8 + t14;
        const V t25 = t8 - t14;
        const V t26 = t24 + t2;
        const V t27 = c[0] * t24;
        const V t28 = t2 - t27;
        const V t29 = c[1] * t25;
        // real block of 3, multiplier 2
        const V t30 = t10 + t16;
        const V t31 = t10 - t16;
        const V t32 = t30 + t4;
        const V t33 = c[0] * t30;
        const V t34 = t4 - t33;
        const V t35 = c[1] * t31;
        // real block of 3, multiplier 2
        const V t36 = t26 + t32;
        const V t37 = t26 - t32;
        const V t38 = t36 + t20;
        const V t39 = c[0] * t36;
        const V t40 = t20 - t39;
        const V t41 = c[1] * t37;
        // real block of 9, multiplier 2
        const V t42 = c[2] * t29;
        const V t43 = c[3] * t28;
        const V t44 = t43 + t42;
        const V t45 = c[2] * t28;
        const V t46 = c[3] * t29;
        const V t47 = t46 - t45;
        const V t48 = c[4] * t35;
        const V t49 = c[5] * t34;
        const V t50 = t48 - t49;
        const V t51 = c[4] * t34;
        const V t52 = c[5] * t35;
        const V t53 = t52 + t51;
        // complex block of 3, multiplier 2
        const V t54 = t44 + t50;
        const V t55 = t47 - t53;
        const V t56 = t44 - t50;
        const V t57 = t47 + t53;
        const V t58 = t54 + t22;
        const V t59 = t55 + t23;
        const V t60 = c[0] * t54;
        const V t61 = t22 - t60;
        const V t62 = c[0] * t55;
        const V t63 = t23 - t62;
        const V t64 = c[1] * t56;
        const V t65 = c[1] * t57;
        const V t66 = t61 + t65;
        const V t67 = t63 - t64;
        const V t68 = t61 - t65;
        const V t69 = t63 + t64;
        // real block of 3, multiplier 2
        const V t70 = t7 + t13;
        const V t71 = t7 - t13;
        const V t72 = t70 + t1;
        const V t73 = c[0] * t70;
        const V t74 = t1 - t73;
        const V t75 = c[1] * t71;
        // real block of 3, multiplier 2
        const V t76 = t9 + t15;
        const V t77 = t9 - t15;
        const V t78 = t76 + t3;
        const V t79 = c[0] * t76;
        const V t80 = t3 - t79;
        const V t81 = c[1] * t77;
        // real block of 3, multiplier 2
        const V t82 = t11 + t17;
        const V t83 = t11 - t17;
        const V t84 = t82 + t5;
        const V t85 = c[0] * t82;
        const V t86 = t5 - t85;
        const V t87 = c[1] * t83;
        // real block of 3, multiplier 2
        const V t88 = t78 + t84;
        const V t89 = t78 - t84;
        const V t90 = t88 + t72;
        const V t91 = c[0] * t88;
        const V t92 = t72 - t91;
        const V t93 = c[1] * t89;
        // real block of 9, multiplier 2
        const V t94 = c[2] * t81;
        const V t95 = c[3] * t80;
        const V t96 = t95 + t94;
        const V t97 = c[2] * t80;
        const V t98 = c[3] * t81;
        const V t99 = t98 - t97;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t86;
        const V t102 = t100 - t101;
        const V t103 = c[4] * t86;
        const V t104 = c[5] * t87;
        const V t105 = t104 + t103;
        // complex block of 3, multiplier 2
        const V t106 = t96 + t102;
        const V t107 = t99 - t105;
        const V t108 = t96 - t102;
        const V t109 = t99 + t105;
        const V t110 = t106 + t74;
        const V t111 = t107 + t75;
        const V t112 = c[0] * t106;
        const V t113 = t74 - t112;
        const V t114 = c[0] * t107;
        const V t115 = t75 - t114;
        const V t116 = c[1] * t108;
        const V t117 = c[1] * t109;
        const V t118 = t113 + t117;
        const V t119 = t115 - t116;
        const V t120 = t113 - t117;
        const V t121 = t115 + t116;
        // real block of 2
        const V x3i = io.im(3);
        const V x54i = io.im(54);
        const V t122 = x3i + x54i;
        const V t123 = x3i - x54i;
        // real block of 2
        const V x12i = io.im(12);
        const V x45i = io.im(45);
        const V t124 = x12i + x45i;
        const V t125 = x12i - x45i;
        // real block of 2
        const V x48i = io.im(48);
        const V x9i = io.im(9);
        const V t126 = x48i + x9i;
        const V t127 = x48i - x9i;
        // real block of 2
        const V x21i = io.im(21);
        const V x36i = io.im(36);
        const V t128 = x21i + x36i;
        const V t129 = x21i - x36i;
        // real block of 2
        const V x27i = io.im(27);
        const V x30i = io.im(30);
        const V t130 = x27i + x30i;
        const V t131 = x27i - x30i;
        // real block of 2
        const V x51i = io.im(51);
        const V x6i = io.im(6);
        const V t132 = x51i + x6i;
        const V t133 = x51i - x6i;
        // real block of 2
        const V x33i = io.im(33);
        const V x24i = io.im(24);
        const V t134 = x33i + x24i;
        const V t135 = x33i - x24i;
        // real block of 2
        const V x18i = io.im(18);
        const V x39i = io.im(39);
        const V t136 = x18i + x39i;
        const V t137 = x18i - x39i;
        // real block of 2
        const V x15i = io.im(15);
        const V x42i = io.im(42);
        const V t138 = x15i + x42i;
        const V t139 = x15i - x42i;
        // real block of 3, multiplier 2
        const V t140 = t128 + t134;
        const V t141 = t128 - t134;
        const V t142 = t140 + t122;
        const V t143 = c[0] * t140;
        const V t144 = t122 - t143;
        const V t145 = c[1] * t141;
        // real block of 3, multiplier 2
        const V t146 = t130 + t136;
        const V t147 = t130 - t136;
        const V t148 = t146 + t124;
        const V t149 = c[0] * t146;
        const V t150 = t124 - t149;
        const V t151 = c[1] * t147;
        // real block of 3, multiplier 2
        const V t152 = t132 + t138;
        const V t153 = t132 - t138;
        const V t154 = t152 + t126;
        const V t155 = c[0] * t152;
        const V t156 = t126 - t155;
        const V t157 = c[1] * t153;
        // real block of 3, multiplier 2
        const V t158 = t148 + t154;
        const V t159 = t148 - t154;
        const V t160 = t158 + t142;
        const V t161 = c[0] * t158;
        const V t162 = t142 - t161;
        const V t163 = c[1] * t159;
        // real block of 9, multiplier 2
        const V t164 = c[2] * t151;
        const V t165 = c[3] * t150;
        const V t166 = t165 + t164;
        const V t167 = c[2] * t150;
        const V t168 = c[3] * t151;
        const V t169 = t168 - t167;
        const V t170 = c[4] * t157;
        const V t171 = c[5] * t156;
        const V t172 = t170 - t171;
        const V t173 = c[4] * t156;
        const V t174 = c[5] * t157;
        const V t175 = t174 + t173;
        // complex block of 3, multiplier 2
        const V t176 = t166 + t172;
        const V t177 = t169 - t175;
        const V t178 = t166 - t172;
        const V t179 = t169 + t175;
        const V t180 = t176 + t144;
        const V t181 = t177 + t145;
        const V t182 = c[0] * t176;
        const V t183 = t144 - t182;
        const V t184 = c[0] * t177;
        const V t185 = t145 - t184;
        const V t186 = c[1] * t178;
        const V t187 = c[1] * t179;
        const V t188 = t183 + t187;
        const V t189 = t185 - t186;
        const V t190 = t183 - t187;
        const V t191 = t185 + t186;
        // real block of 3, multiplier 2
        const V t192 = t129 + t135;
        const V t193 = t129 - t135;
        const V t194 = t192 + t123;
        const V t195 = c[0] * t192;
        const V t196 = t123 - t195;
        const V t197 = c[1] * t193;
        // real block of 3, multiplier 2
        const V t198 = t131 + t137;
        const V t199 = t131 - t137;
        const V t200 = t198 + t125;
        const V t201 = c[0] * t198;
        const V t202 = t125 - t201;
        const V t203 = c[1] * t199;
        // real block of 3, multiplier 2
        const V t204 = t133 + t139;
        const V t205 = t133 - t139;
        const V t206 = t204 + t127;
        const V t207 = c[0] * t204;
        const V t208 = t127 - t207;
        const V t209 = c[1] * t205;
        // real block of 3, multiplier 2
        const V t210 = t200 + t206;
        const V t211 = t200 - t206;
        const V t212 = t210 + t194;
        const V t213 = c[0] * t210;
        const V t214 = t194 - t213;
        const V t215 = c[1] * t211;
        // real block of 9, multiplier 2
        const V t216 = c[2] * t203;
        const V t217 = c[3] * t202;
        const V t218 = t217 + t216;
        const V t219 = c[2] * t202;
        const V t220 = c[3] * t203;
        const V t221 = t220 - t219;
        const V t222 = c[4] * t209;
        const V t223 = c[5] * t208;
        const V t224 = t222 - t223;
        const V t225 = c[4] * t208;
        const V t226 = c[5] * t209;
        const V t227 = t226 + t225;
        // complex block of 3, multiplier 2
        const V t228 = t218 + t224;
        const V t229 = t221 - t227;
        const V t230 = t218 - t224;
        const V t231 = t221 + t227;
        const V t232 = t228 + t196;
        const V t233 = t229 + t197;
        const V t234 = c[0] * t228;
        const V t235 = t196 - t234;
        const V t236 = c[0] * t229;
        const V t237 = t197 - t236;
        const V t238 = c[1] * t230;
        const V t239 = c[1] * t231;
        const V t240 = t235 + t239;
        const V t241 = t237 - t238;
        const V t242 = t235 - t239;
        const V t243 = t237 + t238;
        // complex block of 19, multiplier 3
        const V x0r = io.re(0);
        const V t244 = x0r + t38;
        const V x0i = io.im(0);
        const V t245 = x0i + t160;
        const V t246 = c[26] * t38;
        const V t247 = x0r - t246;
        const V t248 = c[26] * t160;
        const V t249 = x0i - t248;
        const V t250 = c[6] * t243;
        const V t251 = c[7] * t242;
        const V t252 = t251 + t250;
        const V t253 = c[6] * t242;
        const V t254 = c[7] * t243;
        const V t255 = t253 - t254;
        const V t256 = c[6] * t121;
        const V t257 = c[7] * t120;
        const V t258 = t257 + t256;
        const V t259 = c[6] * t120;
        const V t260 = c[7] * t121;
        const V t261 = t260 - t259;
        const V t262 = c[8] * t59;
        const V t263 = c[9] * t58;
        const V t264 = t262 - t263;
        const V t265 = c[8] * t58;
        const V t266 = c[9] * t59;
        const V t267 = t266 + t265;
        const V t268 = c[8] * t181;
        const V t269 = c[9] * t180;
        const V t270 = t268 - t269;
        const V t271 = c[8] * t180;
        const V t272 = c[9] * t181;
        const V t273 = t272 + t271;
        const V t274 = c[10] * t215;
        const V t275 = c[11] * t214;
        const V t276 = t275 + t274;
        const V t277 = c[10] * t214;
        const V t278 = c[11] * t215;
        const V t279 = t277 - t278;
        const V t280 = c[10] * t93;
        const V t281 = c[11] * t92;
        const V t282 = t281 + t280;
        const V t283 = c[10] * t92;
        const V t284 = c[11] * t93;
        const V t285 = t284 - t283;
        const V t286 = c[12] * t67;
        const V t287 = c[13] * t66;
        const V t288 = t287 + t286;
        const V t289 = c[12] * t66;
        const V t290 = c[13] * t67;
        const V t291 = t289 - t290;
        const V t292 = c[12] * t189;
        const V t293 = c[13] * t188;
        const V t294 = t293 + t292;
        const V t295 = c[12] * t188;
        const V t296 = c[13] * t189;
        const V t297 = t295 - t296;
        const V t298 = c[14] * t241;
        const V t299 = c[15] * t240;
        const V t300 = t299 + t298;
        const V t301 = c[14] * t240;
        const V t302 = c[15] * t241;
        const V t303 = t302 - t301;
        const V t304 = c[14] * t119;
        const V t305 = c[15] * t118;
        const V t306 = t305 + t304;
        const V t307 = c[14] * t118;
        const V t308 = c[15] * t119;
        const V t309 = t307 - t308;
        const V t310 = c[16] * t41;
        const V t311 = c[17] * t40;
        const V t312 = t311 + t310;
        const V t313 = c[16] * t40;
        const V t314 = c[17] * t41;
        const V t315 = t314 - t313;
        const V t316 = c[16] * t163;
        const V t317 = c[17] * t162;
        const V t318 = t317 + t316;
        const V t319 = c[16] * t162;
        const V t320 = c[17] * t163;
        const V t321 = t320 - t319;
        const V t322 = c[18] * t233;
        const V t323 = c[19] * t232;
        const V t324 = t323 + t322;
        const V t325 = c[18] * t232;
        const V t326 = c[19] * t233;
        const V t327 = t325 - t326;
        const V t328 = c[18] * t111;
        const V t329 = c[19] * t110;
        const V t330 = t329 + t328;
        const V t331 = c[18] * t110;
        const V t332 = c[19] * t111;
        const V t333 = t332 - t331;
        const V t334 = c[20] * t69;
        const V t335 = c[21] * t68;
        const V t336 = t335 - t334;
        const V t337 = c[20] * t68;
        const V t338 = c[21] * t69;
        const V t339 = t338 + t337;
        const V t340 = c[20] * t191;
        const V t341 = c[21] * t190;
        const V t342 = t341 - t340;
        const V t343 = c[20] * t190;
        const V t344 = c[21] * t191;
        const V t345 = t344 + t343;
        const V t346 = c[27] * t212;
        const V t347 = c[27] * t90;
        // spectrum block of 2
        const V t348 = t247 - t346;
        const V t349 = t247 + t346;
        // complex block of 2
        const V t350 = t267 + t327;
        const V t351 = t264 + t324;
        const V t352 = t327 - t267;
        const V t353 = t264 - t324;
        // complex block of 2
        const V t354 = t291 - t303;
        const V t355 = t288 + t300;
        const V t356 = t291 + t303;
        const V t357 = t288 - t300;
        // complex block of 2
        const V t358 = t315 - t279;
        const V t359 = t312 + t276;
        const V t360 = t315 + t279;
        const V t361 = t312 - t276;
        // complex block of 2
        const V t362 = t339 - t255;
        const V t363 = t336 + t252;
        const V t364 = t339 + t255;
        const V t365 = t336 - t252;
        // spectrum block of 3, multiplier 2
        const V t366 = t359 + t348;
        const V t367 = c[0] * t359;
        const V t368 = t348 - t367;
        const V t369 = c[1] * t358;
        const V t370 = t368 - t369;
        const V t371 = t368 + t369;
        // complex block of 3, multiplier 2
        const V t372 = t362 - t354;
        const V t373 = t363 + t355;
        const V t374 = t362 + t354;
        const V t375 = t363 - t355;
        const V t376 = t372 - t350;
        const V t377 = t373 + t351;
        const V t378 = c[0] * t372;
        const V t379 = t350 + t378;
        const V t380 = c[0] * t373;
        const V t381 = t351 - t380;
        const V t382 = c[1] * t374;
        const V t383 = c[1] * t375;
        const V t384 = t383 - t379;
        const V t385 = t381 - t382;
        const V t386 = t379 + t383;
        const V t387 = t381 + t382;
        // spectrum block of 9, multiplier 2
        const V t388 = c[2] * t386;
        const V t389 = c[3] * t387;
        const V t390 = t389 + t388;
        const V t391 = c[4] * t384;
        const V t392 = c[5] * t385;
        const V t393 = t392 + t391;
        // spectrum block of 3, multiplier 2
        const V t394 = t377 + t366;
        const V t395 = c[0] * t377;
        const V t396 = t366 - t395;
        const V t397 = c[1] * t376;
        const V t398 = t396 - t397;
        const V t399 = t396 + t397;
        // spectrum block of 3, multiplier 2
        const V t400 = t390 + t371;
        const V t401 = c[0] * t390;
        const V t402 = t371 - t401;
        const V t403 = c[22] * t387;
        const V t404 = c[23] * t386;
        const V t405 = t403 - t404;
        const V t406 = t402 - t405;
        const V t407 = t402 + t405;
        // spectrum block of 3, multiplier 2
        const V t408 = t370 - t393;
        const V t409 = c[0] * t393;
        const V t410 = t409 + t370;
        const V t411 = c[24] * t385;
        const V t412 = c[25] * t384;
        const V t413 = t411 - t412;
        const V t414 = t410 - t413;
        const V t415 = t410 + t413;
        // spectrum block of 3, multiplier 2
        const V t416 = t361 + t349;
        const V t417 = c[0] * t361;
        const V t418 = t349 - t417;
        const V t419 = c[1] * t360;
        const V t420 = t418 - t419;
        const V t421 = t418 + t419;
        // complex block of 3, multiplier 2
        const V t422 = t364 - t356;
        const V t423 = t365 + t357;
        const V t424 = t364 + t356;
        const V t425 = t365 - t357;
        const V t426 = t422 + t352;
        const V t427 = t423 + t353;
        const V t428 = c[0] * t422;
        const V t429 = t352 - t428;
        const V t430 = c[0] * t423;
        const V t431 = t353 - t430;
        const V t432 = c[1] * t424;
        const V t433 = c[1] * t425;
        const V t434 = t429 + t433;
        const V t435 = t431 - t432;
        const V t436 = t429 - t433;
        const V t437 = t431 + t432;
        // spectrum block of 9, multiplier 2
        const V t438 = c[2] * t436;
        const V t439 = c[3] * t437;
        const V t440 = t439 - t438;
        const V t441 = c[4] * t434;
        const V t442 = c[5] * t435;
        const V t443 = t442 + t441;
        // spectrum block of 3, multiplier 2
        const V t444 = t427 + t416;
        const V t445 = c[0] * t427;
        const V t446 = t416 - t445;
        const V t447 = c[1] * t426;
        const V t448 = t446 - t447;
        const V t449 = t446 + t447;
        // spectrum block of 3, multiplier 2
        const V t450 = t440 + t421;
        const V t451 = c[0] * t440;
        const V t452 = t421 - t451;
        const V t453 = c[23] * t436;
        const V t454 = c[22] * t437;
        const V t455 = t453 + t454;
        const V t456 = t452 - t455;
        const V t457 = t452 + t455;
        // spectrum block of 3, multiplier 2
        const V t458 = t420 - t443;
        const V t459 = c[0] * t443;
        const V t460 = t459 + t420;
        const V t461 = c[24] * t435;
        const V t462 = c[25] * t434;
        const V t463 = t461 - t462;
        const V t464 = t460 - t463;
        const V t465 = t460 + t463;
        // spectrum block of 2
        const V t466 = t249 + t347;
        const V t467 = t249 - t347;
        // complex block of 2
        const V t468 = t273 + t333;
        const V t469 = t270 - t330;
        const V t470 = t333 - t273;
        const V t471 = t270 + t330;
        // complex block of 2
        const V t472 = t297 - t309;
        const V t473 = t294 - t306;
        const V t474 = t297 + t309;
        const V t475 = t294 + t306;
        // complex block of 2
        const V t476 = t321 - t285;
        const V t477 = t318 - t282;
        const V t478 = t321 + t285;
        const V t479 = t318 + t282;
        // complex block of 2
        const V t480 = t345 - t261;
        const V t481 = t342 - t258;
        const V t482 = t345 + t261;
        const V t483 = t342 + t258;
        // spectrum block of 3, multiplier 2
        const V t484 = t477 + t466;
        const V t485 = c[0] * t477;
        const V t486 = t466 - t485;
        const V t487 = c[1] * t476;
        const V t488 = t486 - t487;
        const V t489 = t486 + t487;
        // complex block of 3, multiplier 2
        const V t490 = t480 - t472;
        const V t491 = t481 + t473;
        const V t492 = t480 + t472;
        const V t493 = t481 - t473;
        const V t494 = t490 - t468;
        const V t495 = t491 + t469;
        const V t496 = c[0] * t490;
        const V t497 = t468 + t496;
        const V t498 = c[0] * t491;
        const V t499 = t469 - t498;
        const V t500 = c[1] * t492;
        const V t501 = c[1] * t493;
        const V t502 = t501 - t497;
        const V t503 = t499 - t500;
        const V t504 = t497 + t501;
        const V t505 = t499 + t500;
        // spectrum block of 9, multiplier 2
        const V t506 = c[2] * t504;
        const V t507 = c[3] * t505;
        const V t508 = t507 + t506;
        const V t509 = c[4] * t502;
        const V t510 = c[5] * t503;
        const V t511 = t510 + t509;
        // spectrum block of 3, multiplier 2
        const V t512 = t495 + t484;
        const V t513 = c[0] * t495;
        const V t514 = t484 - t513;
        const V t515 = c[1] * t494;
        const V t516 = t514 - t515;
        const V t517 = t514 + t515;
        // spectrum block of 3, multiplier 2
        const V t518 = t508 + t489;
        const V t519 = c[0] * t508;
        const V t520 = t489 - t519;
        const V t521 = c[22] * t505;
        const V t522 = c[23] * t504;
        const V t523 = t521 - t522;
        const V t524 = t520 - t523;
        const V t525 = t520 + t523;
        // spectrum block of 3, multiplier 2
        const V t526 = t488 - t511;
        const V t527 = c[0] * t511;
        const V t528 = t527 + t488;
        const V t529 = c[24] * t503;
        const V t530 = c[25] * t502;
        const V t531 = t529 - t530;
        const V t532 = t528 - t531;
        const V t533 = t528 + t531;
        // spectrum block of 3, multiplier 2
        const V t534 = t479 + t467;
        const V t535 = c[0] * t479;
        const V t536 = t467 - t535;
        const V t537 = c[1] * t478;
        const V t538 = t536 - t537;
        const V t539 = t536 + t537;
        // complex block of 3, multiplier 2
        const V t540 = t482 - t474;
        const V t541 = t483 + t475;
        const V t542 = t482 + t474;
        const V t543 = t483 - t475;
        const V t544 = t540 + t470;
        const V t545 = t541 + t471;
        const V t546 = c[0] * t540;
        const V t547 = t470 - t546;
        const V t548 = c[0] * t541;
        const V t549 = t471 - t548;
        const V t550 = c[1] * t542;
        const V t551 = c[1] * t543;
        const V t552 = t547 + t551;
        const V t553 = t549 - t550;
        const V t554 = t547 - t551;
        const V t555 = t549 + t550;
        // spectrum block of 9, multiplier 2
        const V t556 = c[2] * t554;
        const V t557 = c[3] * t555;
        const V t558 = t557 - t556;
        const V t559 = c[4] * t552;
        const V t560 = c[5] * t553;
        const V t561 = t560 + t559;
        // spectrum block of 3, multiplier 2
        const V t562 = t545 + t534;
        const V t563 = c[0] * t545;
        const V t564 = t534 - t563;
        const V t565 = c[1] * t544;
        const V t566 = t564 - t565;
        const V t567 = t564 + t565;
        // spectrum block of 3, multiplier 2
        const V t568 = t558 + t539;
        const V t569 = c[0] * t558;
        const V t570 = t539 - t569;
        const V t571 = c[23] * t554;
        const V t572 = c[22] * t555;
        const V t573 = t571 + t572;
        const V t574 = t570 - t573;
        const V t575 = t570 + t573;
        // spectrum block of 3, multiplier 2
        const V t576 = t538 - t561;
        const V t577 = c[0] * t561;
        const V t578 = t577 + t538;
        const V t579 = c[24] * t553;
        const V t580 = c[25] * t552;
        const V t581 = t579 - t580;
        const V t582 = t578 - t581;
        const V t583 = t578 + t581;
        // real block of 2
        const V x22r = io.re(22);
        const V x16r = io.re(16);
        const V t584 = x22r + x16r;
        const V t585 = x22r - x16r;
        // real block of 2
        const V x31r = io.re(31);
        const V x7r = io.re(7);
        const V t586 = x31r + x7r;
        const V t587 = x31r - x7r;
        // real block of 2
        const V x10r = io.re(10);
        const V x28r = io.re(28);
        const V t588 = x10r + x28r;
        const V t589 = x10r - x28r;
        // real block of 2
        const V x40r = io.re(40);
        const V x55r = io.re(55);
        const V t590 = x40r + x55r;
        const V t591 = x40r - x55r;
        // real block of 2
        const V x46r = io.re(46);
        const V x49r = io.re(49);
        const V t592 = x46r + x49r;
        const V t593 = x46r - x49r;
        // real block of 2
        const V x13r = io.re(13);
        const V x25r = io.re(25);
        const V t594 = x13r + x25r;
        const V t595 = x13r - x25r;
        // real block of 2
        const V x52r = io.re(52);
        const V x43r = io.re(43);
        const V t596 = x52r + x43r;
        const V t597 = x52r - x43r;
        // real block of 2
        const V x37r = io.re(37);
        const V x1r = io.re(1);
        const V t598 = x37r + x1r;
        const V t599 = x37r - x1r;
        // real block of 2
        const V x34r = io.re(34);
        const V x4r = io.re(4);
        const V t600 = x34r + x4r;
        const V t601 = x34r - x4r;
        // real block of 3, multiplier 2
        const V t602 = t590 + t596;
        const V t603 = t590 - t596;
        const V t604 = t602 + t584;
        const V t605 = c[0] * t602;
        const V t606 = t584 - t605;
        const V t607 = c[1] * t603;
        // real block of 3, multiplier 2
        const V t608 = t592 + t598;
        const V t609 = t592 - t598;
        const V t610 = t608 + t586;
        const V t611 = c[0] * t608;
        const V t612 = t586 - t611;
        const V t613 = c[1] * t609;
        // real block of 3, multiplier 2
        const V t614 = t594 + t600;
        const V t615 = t594 - t600;
        const V t616 = t614 + t588;
        const V t617 = c[0] * t614;
        const V t618 = t588 - t617;
        const V t619 = c[1] * t615;
        // real block of 3, multiplier 2
        const V t620 = t610 + t616;
        const V t621 = t610 - t616;
        const V t622 = t620 + t604;
        const V t623 = c[0] * t620;
        const V t624 = t604 - t623;
        const V t625 = c[1] * t621;
        // real block of 9, multiplier 2
        const V t626 = c[2] * t613;
        const V t627 = c[3] * t612;
        const V t628 = t627 + t626;
        const V t629 = c[2] * t612;
        const V t630 = c[3] * t613;
        const V t631 = t630 - t629;
        const V t632 = c[4] * t619;
        const V t633 = c[5] * t618;
        const V t634 = t632 - t633;
        const V t635 = c[4] * t618;
        const V t636 = c[5] * t619;
        const V t637 = t636 + t635;
        // complex block of 3, multiplier 2
        const V t638 = t628 + t634;
        const V t639 = t631 - t637;
        const V t640 = t628 - t634;
        const V t641 = t631 + t637;
        const V t642 = t638 + t606;
        const V t643 = t639 + t607;
        const V t644 = c[0] * t638;
        const V t645 = t606 - t644;
        const V t646 = c[0] * t639;
        const V t647 = t607 - t646;
        const V t648 = c[1] * t640;
        const V t649 = c[1] * t641;
        const V t650 = t645 + t649;
        const V t651 = t647 - t648;
        const V t652 = t645 - t649;
        const V t653 = t647 + t648;
        // real block of 3, multiplier 2
        const V t654 = t591 + t597;
        const V t655 = t591 - t597;
        const V t656 = t654 + t585;
        const V t657 = c[0] * t654;
        const V t658 = t585 - t657;
        const V t659 = c[1] * t655;
        // real block of 3, multiplier 2
        const V t660 = t593 + t599;
        const V t661 = t593 - t599;
        const V t662 = t660 + t587;
        const V t663 = c[0] * t660;
        const V t664 = t587 - t663;
        const V t665 = c[1] * t661;
        // real block of 3, multiplier 2
        const V t666 = t595 + t601;
        const V t667 = t595 - t601;
        const V t668 = t666 + t589;
        const V t669 = c[0] * t666;
        const V t670 = t589 - t669;
        const V t671 = c[1] * t667;
        // real block of 3, multiplier 2
        const V t672 = t662 + t668;
        const V t673 = t662 - t668;
        const V t674 = t672 + t656;
        const V t675 = c[0] * t672;
        const V t676 = t656 - t675;
        const V t677 = c[1] * t673;
        // real block of 9, multiplier 2
        const V t678 = c[2] * t665;
        const V t679 = c[3] * t664;
        const V t680 = t679 + t678;
        const V t681 = c[2] * t664;
        const V t682 = c[3] * t665;
        const V t683 = t682 - t681;
        const V t684 = c[4] * t671;
        const V t685 = c[5] * t670;
        const V t686 = t684 - t685;
        const V t687 = c[4] * t670;
        const V t688 = c[5] * t671;
        const V t689 = t688 + t687;
        // complex block of 3, multiplier 2
        const V t690 = t680 + t686;
        const V t691 = t683 - t689;
        const V t692 = t680 - t686;
        const V t693 = t683 + t689;
        const V t694 = t690 + t658;
        const V t695 = t691 + t659;
        const V t696 = c[0] * t690;
        const V t697 = t658 - t696;
        const V t698 = c[0] * t691;
        const V t699 = t659 - t698;
        const V t700 = c[1] * t692;
        const V t701 = c[1] * t693;
        const V t702 = t697 + t701;
        const V t703 = t699 - t700;
        const V t704 = t697 - t701;
        const V t705 = t699 + t700;
        // real block of 2
        const V x22i = io.im(22);
        const V x16i = io.im(16);
        const V t706 = x22i + x16i;
        const V t707 = x22i - x16i;
        // real block of 2
        const V x31i = io.im(31);
        const V x7i = io.im(7);
        const V t708 = x31i + x7i;
        const V t709 = x31i - x7i;
        // real block of 2
        const V x10i = io.im(10);
        const V x28i = io.im(28);
        const V t710 = x10i + x28i;
        const V t711 = x10i - x28i;
        // real block of 2
        const V x40i = io.im(40);
        const V x55i = io.im(55);
        const V t712 = x40i + x55i;
        const V t713 = x40i - x55i;
        // real block of 2
        const V x46i = io.im(46);
        const V x49i = io.im(49);
        const V t714 = x46i + x49i;
        const V t715 = x46i - x49i;
        // real block of 2
        const V x13i = io.im(13);
        const V x25i = io.im(25);
        const V t716 = x13i + x25i;
        const V t717 = x13i - x25i;
        // real block of 2
        const V x52i = io.im(52);
        const V x43i = io.im(43);
        const V t718 = x52i + x43i;
        const V t719 = x52i - x43i;
        // real block of 2
        const V x37i = io.im(37);
        const V x1i = io.im(1);
        const V t720 = x37i + x1i;
        const V t721 = x37i - x1i;
        // real block of 2
        const V x34i = io.im(34);
        const V x4i = io.im(4);
        const V t722 = x34i + x4i;
        const V t723 = x34i - x4i;
        // real block of 3, multiplier 2
        const V t724 = t712 + t718;
        const V t725 = t712 - t718;
        const V t726 = t724 + t706;
        const V t727 = c[0] * t724;
        const V t728 = t706 - t727;
        const V t729 = c[1] * t725;
        // real block of 3, multiplier 2
        const V t730 = t714 + t720;
        const V t731 = t714 - t720;
        const V t732 = t730 + t708;
        const V t733 = c[0] * t730;
        const V t734 = t708 - t733;
        const V t735 = c[1] * t731;
        // real block of 3, multiplier 2
        const V t736 = t716 + t722;
        const V t737 = t716 - t722;
        const V t738 = t736 + t710;
        const V t739 = c[0] * t736;
        const V t740 = t710 - t739;
        const V t741 = c[1] * t737;
        // real block of 3, multiplier 2
        const V t742 = t732 + t738;
        const V t743 = t732 - t738;
        const V t744 = t742 + t726;
        const V t745 = c[0] * t742;
        const V t746 = t726 - t745;
        const V t747 = c[1] * t743;
        // real block of 9, multiplier 2
        const V t748 = c[2] * t735;
        const V t749 = c[3] * t734;
        const V t750 = t749 + t748;
        const V t751 = c[2] * t734;
        const V t752 = c[3] * t735;
        const V t753 = t752 - t751;
        const V t754 = c[4] * t741;
        const V t755 = c[5] * t740;
        const V t756 = t754 - t755;
        const V t757 = c[4] * t740;
        const V t758 = c[5] * t741;
        const V t759 = t758 + t757;
        // complex block of 3, multiplier 2
        const V t760 = t750 + t756;
        const V t761 = t753 - t759;
        const V t762 = t750 - t756;
        const V t763 = t753 + t759;
        const V t764 = t760 + t728;
        const V t765 = t761 + t729;
        const V t766 = c[0] * t760;
        const V t767 = t728 - t766;
        const V t768 = c[0] * t761;
        const V t769 = t729 - t768;
        const V t770 = c[1] * t762;
        const V t771 = c[1] * t763;
        const V t772 = t767 + t771;
        const V t773 = t769 - t770;
        const V t774 = t767 - t771;
        const V t775 = t769 + t770;
        // real block of 3, multiplier 2
        const V t776 = t713 + t719;
        const V t777 = t713 - t719;
        const V t778 = t776 + t707;
        const V t779 = c[0] * t776;
        const V t780 = t707 - t779;
        const V t781 = c[1] * t777;
        // real block of 3, multiplier 2
        const V t782 = t715 + t721;
        const V t783 = t715 - t721;
        const V t784 = t782 + t709;
        const V t785 = c[0] * t782;
        const V t786 = t709 - t785;
        const V t787 = c[1] * t783;
        // real block of 3, multiplier 2
        const V t788 = t717 + t723;
        const V t789 = t717 - t723;
        const V t790 = t788 + t711;
        const V t791 = c[0] * t788;
        const V t792 = t711 - t791;
        const V t793 = c[1] * t789;
        // real block of 3, multiplier 2
        const V t794 = t784 + t790;
        const V t795 = t784 - t790;
        const V t796 = t794 + t778;
        const V t797 = c[0] * t794;
        const V t798 = t778 - t797;
        const V t799 = c[1] * t795;
        // real block of 9, multiplier 2
        const V t800 = c[2] * t787;
        const V t801 = c[3] * t786;
        const V t802 = t801 + t800;
        const V t803 = c[2] * t786;
        const V t804 = c[3] * t787;
        const V t805 = t804 - t803;
        const V t806 = c[4] * t793;
        const V t807 = c[5] * t792;
        const V t808 = t806 - t807;
        const V t809 = c[4] * t792;
        const V t810 = c[5] * t793;
        const V t811 = t810 + t809;
        // complex block of 3, multiplier 2
        const V t812 = t802 + t808;
        const V t813 = t805 - t811;
        const V t814 = t802 - t808;
        const V t815 = t805 + t811;
        const V t816 = t812 + t780;
        const V t817 = t813 + t781;
        const V t818 = c[0] * t812;
        const V t819 = t780 - t818;
        const V t820 = c[0] * t813;
        const V t821 = t781 - t820;
        const V t822 = c[1] * t814;
        const V t823 = c[1] * t815;
        const V t824 = t819 + t823;
        const V t825 = t821 - t822;
        const V t826 = t819 - t823;
        const V t827 = t821 + t822;
        // complex block of 19, multiplier 3
        const V x19r = io.re(19);
        const V t828 = x19r + t622;
        const V x19i = io.im(19);
        const V t829 = x19i + t744;
        const V t830 = c[26] * t622;
        const V t831 = x19r - t830;
        const V t832 = c[26] * t744;
        const V t833 = x19i - t832;
        const V t834 = c[6] * t827;
        const V t835 = c[7] * t826;
        const V t836 = t835 + t834;
        const V t837 = c[6] * t826;
        const V t838 = c[7] * t827;
        const V t839 = t837 - t838;
        const V t840 = c[6] * t705;
        const V t841 = c[7] * t704;
        const V t842 = t841 + t840;
        const V t843 = c[6] * t704;
        const V t844 = c[7] * t705;
        const V t845 = t844 - t843;
        const V t846 = c[8] * t643;
        const V t847 = c[9] * t642;
        const V t848 = t846 - t847;
        const V t849 = c[8] * t642;
        const V t850 = c[9] * t643;
        const V t851 = t850 + t849;
        const V t852 = c[8] * t765;
        const V t853 = c[9] * t764;
        const V t854 = t852 - t853;
        const V t855 = c[8] * t764;
        const V t856 = c[9] * t765;
        const V t857 = t856 + t855;
        const V t858 = c[10] * t799;
        const V t859 = c[11] * t798;
        const V t860 = t859 + t858;
        const V t861 = c[10] * t798;
        const V t862 = c[11] * t799;
        const V t863 = t861 - t862;
        const V t864 = c[10] * t677;
        const V t865 = c[11] * t676;
        const V t866 = t865 + t864;
        const V t867 = c[10] * t676;
        const V t868 = c[11] * t677;
        const V t869 = t868 - t867;
        const V t870 = c[12] * t651;
        const V t871 = c[13] * t650;
        const V t872 = t871 + t870;
        const V t873 = c[12] * t650;
        const V t874 = c[13] * t651;
        const V t875 = t873 - t874;
        const V t876 = c[12] * t773;
        const V t877 = c[13] * t772;
        const V t878 = t877 + t876;
        const V t879 = c[12] * t772;
        const V t880 = c[13] * t773;
        const V t881 = t879 - t880;
        const V t882 = c[14] * t825;
        const V t883 = c[15] * t824;
        const V t884 = t883 + t882;
        const V t885 = c[14] * t824;
        const V t886 = c[15] * t825;
        const V t887 = t886 - t885;
        const V t888 = c[14] * t703;
        const V t889 = c[15] * t702;
        const V t890 = t889 + t888;
        const V t891 = c[14] * t702;
        const V t892 = c[15] * t703;
        const V t893 = t891 - t892;
        const V t894 = c[16] * t625;
        const V t895 = c[17] * t624;
        const V t896 = t895 + t894;
        const V t897 = c[16] * t624;
        const V t898 = c[17] * t625;
        const V t899 = t898 - t897;
        const V t900 = c[16] * t747;
        const V t901 = c[17] * t746;
        const V t902 = t901 + t900;
        const V t903 = c[16] * t746;
        const V t904 = c[17] * t747;
        const V t905 = t904 - t903;
        const V t906 = c[18] * t817;
        const V t907 = c[19] * t816;
        const V t908 = t907 + t906;
        const V t909 = c[18] * t816;
        const V t910 = c[19] * t817;
        const V t911 = t909 - t910;
        const V t912 = c[18] * t695;
        const V t913 = c[19] * t694;
        const V t914 = t913 + t912;
        const V t915 = c[18] * t694;
        const V t916 = c[19] * t695;
        const V t917 = t916 - t915;
        const V t918 = c[20] * t653;
        const V t919 = c[21] * t652;
        const V t920 = t919 - t918;
        const V t921 = c[20] * t652;
        const V t922 = c[21] * t653;
        const V t923 = t922 + t921;
        const V t924 = c[20] * t775;
        const V t925 = c[21] * t774;
        const V t926 = t925 - t924;
        const V t927 = c[20] * t774;
        const V t928 = c[21] * t775;
        const V t929 = t928 + t927;
        const V t930 = c[27] * t796;
        const V t931 = c[27] * t674;
        // spectrum block of 2
        const V t932 = t831 - t930;
        const V t933 = t831 + t930;
        // complex block of 2
        const V t934 = t851 + t911;
        const V t935 = t848 + t908;
        const V t936 = t911 - t851;
        const V t937 = t848 - t908;
        // complex block of 2
        const V t938 = t875 - t887;
        const V t939 = t872 + t884;
        const V t940 = t875 + t887;
        const V t941 = t872 - t884;
        // complex block of 2
        const V t942 = t899 - t863;
        const V t943 = t896 + t860;
        const V t944 = t899 + t863;
        const V t945 = t896 - t860;
        // complex block of 2
        const V t946 = t923 - t839;
        const V t947 = t920 + t836;
        const V t948 = t923 + t839;
        const V t949 = t920 - t836;
        // spectrum block of 3, multiplier 2
        const V t950 = t943 + t932;
        const V t951 = c[0] * t943;
        const V t952 = t932 - t951;
        const V t953 = c[1] * t942;
        const V t954 = t952 - t953;
        const V t955 = t952 + t953;
        // complex block of 3, multiplier 2
        const V t956 = t946 - t938;
        const V t957 = t947 + t939;
        const V t958 = t946 + t938;
        const V t959 = t947 - t939;
        const V t960 = t956 - t934;
        const V t961 = t957 + t935;
        const V t962 = c[0] * t956;
        const V t963 = t934 + t962;
        const V t964 = c[0] * t957;
        const V t965 = t935 - t964;
        const V t966 = c[1] * t958;
        const V t967 = c[1] * t959;
        const V t968 = t967 - t963;
        const V t969 = t965 - t966;
        const V t970 = t963 + t967;
        const V t971 = t965 + t966;
        // spectrum block of 9, multiplier 2
        const V t972 = c[2] * t970;
        const V t973 = c[3] * t971;
        const V t974 = t973 + t972;
        const V t975 = c[4] * t968;
        const V t976 = c[5] * t969;
        const V t977 = t976 + t975;
        // spectrum block of 3, multiplier 2
        const V t978 = t961 + t950;
        const V t979 = c[0] * t961;
        const V t980 = t950 - t979;
        const V t981 = c[1] * t960;
        const V t982 = t980 - t981;
        const V t983 = t980 + t981;
        // spectrum block of 3, multiplier 2
        const V t984 = t974 + t955;
        const V t985 = c[0] * t974;
        const V t986 = t955 - t985;
        const V t987 = c[22] * t971;
        const V t988 = c[23] * t970;
        const V t989 = t987 - t988;
        const V t990 = t986 - t989;
        const V t991 = t986 + t989;
        // spectrum block of 3, multiplier 2
        const V t992 = t954 - t977;
        const V t993 = c[0] * t977;
        const V t994 = t993 + t954;
        const V t995 = c[24] * t969;
        const V t996 = c[25] * t968;
        const V t997 = t995 - t996;
        const V t998 = t994 - t997;
        const V t999 = t994 + t997;
        // spectrum block of 3, multiplier 2
        const V t1000 = t945 + t933;
        const V t1001 = c[0] * t945;
        const V t1002 = t933 - t1001;
        const V t1003 = c[1] * t944;
        const V t1004 = t1002 - t1003;
        const V t1005 = t1002 + t1003;
        // complex block of 3, multiplier 2
        const V t1006 = t948 - t940;
        const V t1007 = t949 + t941;
        const V t1008 = t948 + t940;
        const V t1009 = t949 - t941;
        const V t1010 = t1006 + t936;
        const V t1011 = t1007 + t937;
        const V t1012 = c[0] * t1006;
        const V t1013 = t936 - t1012;
        const V t1014 = c[0] * t1007;
        const V t1015 = t937 - t1014;
        const V t1016 = c[1] * t1008;
        const V t1017 = c[1] * t1009;
        const V t1018 = t1013 + t1017;
        const V t1019 = t1015 - t1016;
        const V t1020 = t1013 - t1017;
        const V t1021 = t1015 + t1016;
        // spectrum block of 9, multiplier 2
        const V t1022 = c[2] * t1020;
        const V t1023 = c[3] * t1021;
        const V t1024 = t1023 - t1022;
        const V t1025 = c[4] * t1018;
        const V t1026 = c[5] * t1019;
        const V t1027 = t1026 + t1025;
        // spectrum block of 3, multiplier 2
        const V t1028 = t1011 + t1000;
        const V t1029 = c[0] * t1011;
        const V t1030 = t1000 - t1029;
        const V t1031 = c[1] * t1010;
        const V t1032 = t1030 - t1031;
        const V t1033 = t1030 + t1031;
        // spectrum block of 3, multiplier 2
        const V t1034 = t1024 + t1005;
        const V t1035 = c[0] * t1024;
        const V t1036 = t1005 - t1035;
        const V t1037 = c[23] * t1020;
        const V t1038 = c[22] * t1021;
        const V t1039 = t1037 + t1038;
        const V t1040 = t1036 - t1039;
        const V t1041 = t1036 + t1039;
        // spectrum block of 3, multiplier 2
        const V t1042 = t1004 - t1027;
        const V t1043 = c[0] * t1027;
        const V t1044 = t1043 + t1004;
        const V t1045 = c[24] * t1019;
        const V t1046 = c[25] * t1018;
        const V t1047 = t1045 - t1046;
        const V t1048 = t1044 - t1047;
        const V t1049 = t1044 + t1047;
        // spectrum block of 2
        const V t1050 = t833 + t931;
        const V t1051 = t833 - t931;
        // complex block of 2
        const V t1052 = t857 + t917;
        const V t1053 = t854 - t914;
        const V t1054 = t917 - t857;
        const V t1055 = t854 + t914;
        // complex block of 2
        const V t1056 = t881 - t893;
        const V t1057 = t878 - t890;
        const V t1058 = t881 + t893;
        const V t1059 = t878 + t890;
        // complex block of 2
        const V t1060 = t905 - t869;
        const V t1061 = t902 - t866;
        const V t1062 = t905 + t869;
        const V t1063 = t902 + t866;
        // complex block of 2
        const V t1064 = t929 - t845;
        const V t1065 = t926 - t842;
        const V t1066 = t929 + t845;
        const V t1067 = t926 + t842;
        // spectrum block of 3, multiplier 2
        const V t1068 = t1061 + t1050;
        const V t1069 = c[0] * t1061;
        const V t1070 = t1050 - t1069;
        const V t1071 = c[1] * t1060;
        const V t1072 = t1070 - t1071;
        const V t1073 = t1070 + t1071;
        // complex block of 3, multiplier 2
        const V t1074 = t1064 - t1056;
        const V t1075 = t1065 + t1057;
        const V t1076 = t1064 + t1056;
        const V t1077 = t1065 - t1057;
        const V t1078 = t1074 - t1052;
        const V t1079 = t1075 + t1053;
        const V t1080 = c[0] * t1074;
        const V t1081 = t1052 + t1080;
        const V t1082 = c[0] * t1075;
        const V t1083 = t1053 - t1082;
        const V t1084 = c[1] * t1076;
        const V t1085 = c[1] * t1077;
        const V t1086 = t1085 - t1081;
        const V t1087 = t1083 - t1084;
        const V t1088 = t1081 + t1085;
        const V t1089 = t1083 + t1084;
        // spectrum block of 9, multiplier 2
        const V t1090 = c[2] * t1088;
        const V t1091 = c[3] * t1089;
        const V t1092 = t1091 + t1090;
        const V t1093 = c[4] * t1086;
        const V t1094 = c[5] * t1087;
        const V t1095 = t1094 + t1093;
        // spectrum block of 3, multiplier 2
        const V t1096 = t1079 + t1068;
        const V t1097 = c[0] * t1079;
        const V t1098 = t1068 - t1097;
        const V t1099 = c[1] * t1078;
        const V t1100 = t1098 - t1099;
        const V t1101 = t1098 + t1099;
        // spectrum block of 3, multiplier 2
        const V t1102 = t1092 + t1073;
        const V t1103 = c[0] * t1092;
        const V t1104 = t1073 - t1103;
        const V t1105 = c[22] * t1089;
        const V t1106 = c[23] * t1088;
        const V t1107 = t1105 - t1106;
        const V t1108 = t1104 - t1107;
        const V t1109 = t1104 + t1107;
        // spectrum block of 3, multiplier 2
        const V t1110 = t1072 - t1095;
        const V t1111 = c[0] * t1095;
        const V t1112 = t1111 + t1072;
        const V t1113 = c[24] * t1087;
        const V t1114 = c[25] * t1086;
        const V t1115 = t1113 - t1114;
        const V t1116 = t1112 - t1115;
        const V t1117 = t1112 + t1115;
        // spectrum block of 3, multiplier 2
        const V t1118 = t1063 + t1051;
        const V t1119 = c[0] * t1063;
        const V t1120 = t1051 - t1119;
        const V t1121 = c[1] * t1062;
        const V t1122 = t1120 - t1121;
        const V t1123 = t1120 + t1121;
        // complex block of 3, multiplier 2
        const V t1124 = t1066 - t1058;
        const V t1125 = t1067 + t1059;
        const V t1126 = t1066 + t1058;
        const V t1127 = t1067 - t1059;
        const V t1128 = t1124 + t1054;
        const V t1129 = t1125 + t1055;
        const V t1130 = c[0] * t1124;
        const V t1131 = t1054 - t1130;
        const V t1132 = c[0] * t1125;
        const V t1133 = t1055 - t1132;
        const V t1134 = c[1] * t1126;
        const V t1135 = c[1] * t1127;
        const V t1136 = t1131 + t1135;
        const V t1137 = t1133 - t1134;
        const V t1138 = t1131 - t1135;
        const V t1139 = t1133 + t1134;
        // spectrum block of 9, multiplier 2
        const V t1140 = c[2] * t1138;
        const V t1141 = c[3] * t1139;
        const V t1142 = t1141 - t1140;
        const V t1143 = c[4] * t1136;
        const V t1144 = c[5] * t1137;
        const V t1145 = t1144 + t1143;
        // spectrum block of 3, multiplier 2
        const V t1146 = t1129 + t1118;
        const V t1147 = c[0] * t1129;
        const V t1148 = t1118 - t1147;
        const V t1149 = c[1] * t1128;
        const V t1150 = t1148 - t1149;
        const V t1151 = t1148 + t1149;
        // spectrum block of 3, multiplier 2
        const V t1152 = t1142 + t1123;
        const V t1153 = c[0] * t1142;
        const V t1154 = t1123 - t1153;
        const V t1155 = c[23] * t1138;
        const V t1156 = c[22] * t1139;
        const V t1157 = t1155 + t1156;
        const V t1158 = t1154 - t1157;
        const V t1159 = t1154 + t1157;
        // spectrum block of 3, multiplier 2
        const V t1160 = t1122 - t1145;
        const V t1161 = c[0] * t1145;
        const V t1162 = t1161 + t1122;
        const V t1163 = c[24] * t1137;
        const V t1164 = c[25] * t1136;
        const V t1165 = t1163 - t1164;
        const V t1166 = t1162 - t1165;
        const V t1167 = t1162 + t1165;
        // real block of 2
        const V x41r = io.re(41);
        const V x35r = io.re(35);
        const V t1168 = x41r + x35r;
        const V t1169 = x41r - x35r;
        // real block of 2
        const V x50r = io.re(50);
        const V x26r = io.re(26);
        const V t1170 = x50r + x26r;
        const V t1171 = x50r - x26r;
        // real block of 2
        const V x29r = io.re(29);
        const V x47r = io.re(47);
        const V t1172 = x29r + x47r;
        const V t1173 = x29r - x47r;
        // real block of 2
        const V x2r = io.re(2);
        const V x17r = io.re(17);
        const V t1174 = x2r + x17r;
        const V t1175 = x2r - x17r;
        // real block of 2
        const V x8r = io.re(8);
        const V x11r = io.re(11);
        const V t1176 = x8r + x11r;
        const V t1177 = x8r - x11r;
        // real block of 2
        const V x32r = io.re(32);
        const V x44r = io.re(44);
        const V t1178 = x32r + x44r;
        const V t1179 = x32r - x44r;
        // real block of 2
        const V x14r = io.re(14);
        const V x5r = io.re(5);
        const V t1180 = x14r + x5r;
        const V t1181 = x14r - x5r;
        // real block of 2
        const V x56r = io.re(56);
        const V x20r = io.re(20);
        const V t1182 = x56r + x20r;
        const V t1183 = x56r - x20r;
        // real block of 2
        const V x53r = io.re(53);
        const V x23r = io.re(23);
        const V t1184 = x53r + x23r;
        const V t1185 = x53r - x23r;
        // real block of 3, multiplier 2
        const V t1186 = t1174 + t1180;
        const V t1187 = t1174 - t1180;
        const V t1188 = t1186 + t1168;
        const V t1189 = c[0] * t1186;
        const V t1190 = t1168 - t1189;
        const V t1191 = c[1] * t1187;
        // real block of 3, multiplier 2
        const V t1192 = t1176 + t1182;
        const V t1193 = t1176 - t1182;
        const V t1194 = t1192 + t1170;
        const V t1195 = c[0] * t1192;
        const V t1196 = t1170 - t1195;
        const V t1197 = c[1] * t1193;
        // real block of 3, multiplier 2
        const V t1198 = t1178 + t1184;
        const V t1199 = t1178 - t1184;
        const V t1200 = t1198 + t1172;
        const V t1201 = c[0] * t1198;
        const V t1202 = t1172 - t1201;
        const V t1203 = c[1] * t1199;
        // real block of 3, multiplier 2
        const V t1204 = t1194 + t1200;
        const V t1205 = t1194 - t1200;
        const V t1206 = t1204 + t1188;
        const V t1207 = c[0] * t1204;
        const V t1208 = t1188 - t1207;
        const V t1209 = c[1] * t1205;
        // real block of 9, multiplier 2
        const V t1210 = c[2] * t1197;
        const V t1211 = c[3] * t1196;
        const V t1212 = t1211 + t1210;
        const V t1213 = c[2] * t1196;
        const V t1214 = c[3] * t1197;
        const V t1215 = t1214 - t1213;
        const V t1216 = c[4] * t1203;
        const V t1217 = c[5] * t1202;
        const V t1218 = t1216 - t1217;
        const V t1219 = c[4] * t1202;
        const V t1220 = c[5] * t1203;
        const V t1221 = t1220 + t1219;
        // complex block of 3, multiplier 2
        const V t1222 = t1212 + t1218;
        const V t1223 = t1215 - t1221;
        const V t1224 = t1212 - t1218;
        const V t1225 = t1215 + t1221;
        const V t1226 = t1222 + t1190;
        const V t1227 = t1223 + t1191;
        const V t1228 = c[0] * t1222;
        const V t1229 = t1190 - t1228;
        const V t1230 = c[0] * t1223;
        const V t1231 = t1191 - t1230;
        const V t1232 = c[1] * t1224;
        const V t1233 = c[1] * t1225;
        const V t1234 = t1229 + t1233;
        const V t1235 = t1231 - t1232;
        const V t1236 = t1229 - t1233;
        const V t1237 = t1231 + t1232;
        // real block of 3, multiplier 2
        const V t1238 = t1175 + t1181;
        const V t1239 = t1175 - t1181;
        const V t1240 = t1238 + t1169;
        const V t1241 = c[0] * t1238;
        const V t1242 = t1169 - t1241;
        const V t1243 = c[1] * t1239;
        // real block of 3, multiplier 2
        const V t1244 = t1177 + t1183;
        const V t1245 = t1177 - t1183;
        const V t1246 = t1244 + t1171;
        const V t1247 = c[0] * t1244;
        const V t1248 = t1171 - t1247;
        const V t1249 = c[1] * t1245;
        // real block of 3, multiplier 2
        const V t1250 = t1179 + t1185;
        const V t1251 = t1179 - t1185;
        const V t1252 = t1250 + t1173;
        const V t1253 = c[0] * t1250;
        const V t1254 = t1173 - t1253;
        const V t1255 = c[1] * t1251;
        // real block of 3, multiplier 2
        const V t1256 = t1246 + t1252;
        const V t1257 = t1246 - t1252;
        const V t1258 = t1256 + t1240;
        const V t1259 = c[0] * t1256;
        const V t1260 = t1240 - t1259;
        const V t1261 = c[1] * t1257;
        // real block of 9, multiplier 2
        const V t1262 = c[2] * t1249;
        const V t1263 = c[3] * t1248;
        const V t1264 = t1263 + t1262;
        const V t1265 = c[2] * t1248;
        const V t1266 = c[3] * t1249;
        const V t1267 = t1266 - t1265;
        const V t1268 = c[4] * t1255;
        const V t1269 = c[5] * t1254;
        const V t1270 = t1268 - t1269;
        const V t1271 = c[4] * t1254;
        const V t1272 = c[5] * t1255;
        const V t1273 = t1272 + t1271;
        // complex block of 3, multiplier 2
        const V t1274 = t1264 + t1270;
        const V t1275 = t1267 - t1273;
        const V t1276 = t1264 - t1270;
        const V t1277 = t1267 + t1273;
        const V t1278 = t1274 + t1242;
        const V t1279 = t1275 + t1243;
        const V t1280 = c[0] * t1274;
        const V t1281 = t1242 - t1280;
        const V t1282 = c[0] * t1275;
        const V t1283 = t1243 - t1282;
        const V t1284 = c[1] * t1276;
        const V t1285 = c[1] * t1277;
        const V t1286 = t1281 + t1285;
        const V t1287 = t1283 - t1284;
        const V t1288 = t1281 - t1285;
        const V t1289 = t1283 + t1284;
        // real block of 2
        const V x41i = io.im(41);
        const V x35i = io.im(35);
        const V t1290 = x41i + x35i;
        const V t1291 = x41i - x35i;
        // real block of 2
        const V x50i = io.im(50);
        const V x26i = io.im(26);
        const V t1292 = x50i + x26i;
        const V t1293 = x50i - x26i;
        // real block of 2
        const V x29i = io.im(29);
        const V x47i = io.im(47);
        const V t1294 = x29i + x47i;
        const V t1295 = x29i - x47i;
        // real block of 2
        const V x2i = io.im(2);
        const V x17i = io.im(17);
        const V t1296 = x2i + x17i;
        const V t1297 = x2i - x17i;
        // real block of 2
        const V x8i = io.im(8);
        const V x11i = io.im(11);
        const V t1298 = x8i + x11i;
        const V t1299 = x8i - x11i;
        // real block of 2
        const V x32i = io.im(32);
        const V x44i = io.im(44);
        const V t1300 = x32i + x44i;
        const V t1301 = x32i - x44i;
        // real block of 2
        const V x14i = io.im(14);
        const V x5i = io.im(5);
        const V t1302 = x14i + x5i;
        const V t1303 = x14i - x5i;
        // real block of 2
        const V x56i = io.im(56);
        const V x20i = io.im(20);
        const V t1304 = x56i + x20i;
        const V t1305 = x56i - x20i;
        // real block of 2
        const V x53i = io.im(53);
        const V x23i = io.im(23);
        const V t1306 = x53i + x23i;
        const V t1307 = x53i - x23i;
        // real block of 3, multiplier 2
        const V t1308 = t1296 + t1302;
        const V t1309 = t1296 - t1302;
        const V t1310 = t1308 + t1290;
        const V t1311 = c[0] * t1308;
        const V t1312 = t1290 - t1311;
        const V t1313 = c[1] * t1309;
        // real block of 3, multiplier 2
        const V t1314 = t1298 + t1304;
        const V t1315 = t1298 - t1304;
        const V t1316 = t1314 + t1292;
        const V t1317 = c[0] * t1314;
        const V t1318 = t1292 - t1317;
        const V t1319 = c[1] * t1315;
        // real block of 3, multiplier 2
        const V t1320 = t1300 + t1306;
        const V t1321 = t1300 - t1306;
        const V t1322 = t1320 + t1294;
        const V t1323 = c[0] * t1320;
        const V t1324 = t1294 - t1323;
        const V t1325 = c[1] * t1321;
        // real block of 3, multiplier 2
        const V t1326 = t1316 + t1322;
        const V t1327 = t1316 - t1322;
        const V t1328 = t1326 + t1310;
        const V t1329 = c[0] * t1326;
        const V t1330 = t1310 - t1329;
        const V t1331 = c[1] * t1327;
        // real block of 9, multiplier 2
        const V t1332 = c[2] * t1319;
        const V t1333 = c[3] * t1318;
        const V t1334 = t1333 + t1332;
        const V t1335 = c[2] * t1318;
        const V t1336 = c[3] * t1319;
        const V t1337 = t1336 - t1335;
        const V t1338 = c[4] * t1325;
        const V t1339 = c[5] * t1324;
        const V t1340 = t1338 - t1339;
        const V t1341 = c[4] * t1324;
        const V t1342 = c[5] * t1325;
        const V t1343 = t1342 + t1341;
        // complex block of 3, multiplier 2
        const V t1344 = t1334 + t1340;
        const V t1345 = t1337 - t1343;
        const V t1346 = t1334 - t1340;
        const V t1347 = t1337 + t1343;
        const V t1348 = t1344 + t1312;
        const V t1349 = t1345 + t1313;
        const V t1350 = c[0] * t1344;
        const V t1351 = t1312 - t1350;
        const V t1352 = c[0] * t1345;
        const V t1353 = t1313 - t1352;
        const V t1354 = c[1] * t1346;
        const V t1355 = c[1] * t1347;
        const V t1356 = t1351 + t1355;
        const V t1357 = t1353 - t1354;
        const V t1358 = t1351 - t1355;
        const V t1359 = t1353 + t1354;
        // real block of 3, multiplier 2
        const V t1360 = t1297 + t1303;
        const V t1361 = t1297 - t1303;
        const V t1362 = t1360 + t1291;
        const V t1363 = c[0] * t1360;
        const V t1364 = t1291 - t1363;
        const V t1365 = c[1] * t1361;
        // real block of 3, multiplier 2
        const V t1366 = t1299 + t1305;
        const V t1367 = t1299 - t1305;
        const V t1368 = t1366 + t1293;
        const V t1369 = c[0] * t1366;
        const V t1370 = t1293 - t1369;
        const V t1371 = c[1] * t1367;
        // real block of 3, multiplier 2
        const V t1372 = t1301 + t1307;
        const V t1373 = t1301 - t1307;
        const V t1374 = t1372 + t1295;
        const V t1375 = c[0] * t1372;
        const V t1376 = t1295 - t1375;
        const V t1377 = c[1] * t1373;
        // real block of 3, multiplier 2
        const V t1378 = t1368 + t1374;
        const V t1379 = t1368 - t1374;
        const V t1380 = t1378 + t1362;
        const V t1381 = c[0] * t1378;
        const V t1382 = t1362 - t1381;
        const V t1383 = c[1] * t1379;
        // real block of 9, multiplier 2
        const V t1384 = c[2] * t1371;
        const V t1385 = c[3] * t1370;
        const V t1386 = t1385 + t1384;
        const V t1387 = c[2] * t1370;
        const V t1388 = c[3] * t1371;
        const V t1389 = t1388 - t1387;
        const V t1390 = c[4] * t1377;
        const V t1391 = c[5] * t1376;
        const V t1392 = t1390 - t1391;
        const V t1393 = c[4] * t1376;
        const V t1394 = c[5] * t1377;
        const V t1395 = t1394 + t1393;
        // complex block of 3, multiplier 2
        const V t1396 = t1386 + t1392;
        const V t1397 = t1389 - t1395;
        const V t1398 = t1386 - t1392;
        const V t1399 = t1389 + t1395;
        const V t1400 = t1396 + t1364;
        const V t1401 = t1397 + t1365;
        const V t1402 = c[0] * t1396;
        const V t1403 = t1364 - t1402;
        const V t1404 = c[0] * t1397;
        const V t1405 = t1365 - t1404;
        const V t1406 = c[1] * t1398;
        const V t1407 = c[1] * t1399;
        const V t1408 = t1403 + t1407;
        const V t1409 = t1405 - t1406;
        const V t1410 = t1403 - t1407;
        const V t1411 = t1405 + t1406;
        // complex block of 19, multiplier 3
        const V x38r = io.re(38);
        const V t1412 = x38r + t1206;
        const V x38i = io.im(38);
        const V t1413 = x38i + t1328;
        const V t1414 = c[26] * t1206;
        const V t1415 = x38r - t1414;
        const V t1416 = c[26] * t1328;
        const V t1417 = x38i - t1416;
        const V t1418 = c[6] * t1411;
        const V t1419 = c[7] * t1410;
        const V t1420 = t1419 + t1418;
        const V t1421 = c[6] * t1410;
        const V t1422 = c[7] * t1411;
        const V t1423 = t1421 - t1422;
        const V t1424 = c[6] * t1289;
        const V t1425 = c[7] * t1288;
        const V t1426 = t1425 + t1424;
        const V t1427 = c[6] * t1288;
        const V t1428 = c[7] * t1289;
        const V t1429 = t1428 - t1427;
        const V t1430 = c[8] * t1227;
        const V t1431 = c[9] * t1226;
        const V t1432 = t1430 - t1431;
        const V t1433 = c[8] * t1226;
        const V t1434 = c[9] * t1227;
        const V t1435 = t1434 + t1433;
        const V t1436 = c[8] * t1349;
        const V t1437 = c[9] * t1348;
        const V t1438 = t1436 - t1437;
        const V t1439 = c[8] * t1348;
        const V t1440 = c[9] * t1349;
        const V t1441 = t1440 + t1439;
        const V t1442 = c[10] * t1383;
        const V t1443 = c[11] * t1382;
        const V t1444 = t1443 + t1442;
        const V t1445 = c[10] * t1382;
        const V t1446 = c[11] * t1383;
        const V t1447 = t1445 - t1446;
        const V t1448 = c[10] * t1261;
        const V t1449 = c[11] * t1260;
        const V t1450 = t1449 + t1448;
        const V t1451 = c[10] * t1260;
        const V t1452 = c[11] * t1261;
        const V t1453 = t1452 - t1451;
        const V t1454 = c[12] * t1235;
        const V t1455 = c[13] * t1234;
        const V t1456 = t1455 + t1454;
        const V t1457 = c[12] * t1234;
        const V t1458 = c[13] * t1235;
        const V t1459 = t1457 - t1458;
        const V t1460 = c[12] * t1357;
        const V t1461 = c[13] * t1356;
        const V t1462 = t1461 + t1460;
        const V t1463 = c[12] * t1356;
        const V t1464 = c[13] * t1357;
        const V t1465 = t1463 - t1464;
        const V t1466 = c[14] * t1409;
        const V t1467 = c[15] * t1408;
        const V t1468 = t1467 + t1466;
        const V t1469 = c[14] * t1408;
        const V t1470 = c[15] * t1409;
        const V t1471 = t1470 - t1469;
        const V t1472 = c[14] * t1287;
        const V t1473 = c[15] * t1286;
        const V t1474 = t1473 + t1472;
        const V t1475 = c[14] * t1286;
        const V t1476 = c[15] * t1287;
        const V t1477 = t1475 - t1476;
        const V t1478 = c[16] * t1209;
        const V t1479 = c[17] * t1208;
        const V t1480 = t1479 + t1478;
        const V t1481 = c[16] * t1208;
        const V t1482 = c[17] * t1209;
        const V t1483 = t1482 - t1481;
        const V t1484 = c[16] * t1331;
        const V t1485 = c[17] * t1330;
        const V t1486 = t1485 + t1484;
        const V t1487 = c[16] * t1330;
        const V t1488 = c[17] * t1331;
        const V t1489 = t1488 - t1487;
        const V t1490 = c[18] * t1401;
        const V t1491 = c[19] * t1400;
        const V t1492 = t1491 + t1490;
        const V t1493 = c[18] * t1400;
        const V t1494 = c[19] * t1401;
        const V t1495 = t1493 - t1494;
        const V t1496 = c[18] * t1279;
        const V t1497 = c[19] * t1278;
        const V t1498 = t1497 + t1496;
        const V t1499 = c[18] * t1278;
        const V t1500 = c[19] * t1279;
        const V t1501 = t1500 - t1499;
        const V t1502 = c[20] * t1237;
        const V t1503 = c[21] * t1236;
        const V t1504 = t1503 - t1502;
        const V t1505 = c[20] * t1236;
        const V t1506 = c[21] * t1237;
        const V t1507 = t1506 + t1505;
        const V t1508 = c[20] * t1359;
        const V t1509 = c[21] * t1358;
        const V t1510 = t1509 - t1508;
        const V t1511 = c[20] * t1358;
        const V t1512 = c[21] * t1359;
        const V t1513 = t1512 + t1511;
        const V t1514 = c[27] * t1380;
        const V t1515 = c[27] * t1258;
        // spectrum block of 2
        const V t1516 = t1415 - t1514;
        const V t1517 = t1415 + t1514;
        // complex block of 2
        const V t1518 = t1435 + t1495;
        const V t1519 = t1432 + t1492;
        const V t1520 = t1495 - t1435;
        const V t1521 = t1432 - t1492;
        // complex block of 2
        const V t1522 = t1459 - t1471;
        const V t1523 = t1456 + t1468;
        const V t1524 = t1459 + t1471;
        const V t1525 = t1456 - t1468;
        // complex block of 2
        const V t1526 = t1483 - t1447;
        const V t1527 = t1480 + t1444;
        const V t1528 = t1483 + t1447;
        const V t1529 = t1480 - t1444;
        // complex block of 2
        const V t1530 = t1507 - t1423;
        const V t1531 = t1504 + t1420;
        const V t1532 = t1507 + t1423;
        const V t1533 = t1504 - t1420;
        // spectrum block of 3, multiplier 2
        const V t1534 = t1527 + t1516;
        const V t1535 = c[0] * t1527;
        const V t1536 = t1516 - t1535;
        const V t1537 = c[1] * t1526;
        const V t1538 = t1536 - t1537;
        const V t1539 = t1536 + t1537;
        // complex block of 3, multiplier 2
        const V t1540 = t1530 - t1522;
        const V t1541 = t1531 + t1523;
        const V t1542 = t1530 + t1522;
        const V t1543 = t1531 - t1523;
        const V t1544 = t1540 - t1518;
        const V t1545 = t1541 + t1519;
        const V t1546 = c[0] * t1540;
        const V t1547 = t1518 + t1546;
        const V t1548 = c[0] * t1541;
        const V t1549 = t1519 - t1548;
        const V t1550 = c[1] * t1542;
        const V t1551 = c[1] * t1543;
        const V t1552 = t1551 - t1547;
        const V t1553 = t1549 - t1550;
        const V t1554 = t1547 + t1551;
        const V t1555 = t1549 + t1550;
        // spectrum block of 9, multiplier 2
        const V t1556 = c[2] * t1554;
        const V t1557 = c[3] * t1555;
        const V t1558 = t1557 + t1556;
        const V t1559 = c[4] * t1552;
        const V t1560 = c[5] * t1553;
        const V t1561 = t1560 + t1559;
        // spectrum block of 3, multiplier 2
        const V t1562 = t1545 + t1534;
        const V t1563 = c[0] * t1545;
        const V t1564 = t1534 - t1563;
        const V t1565 = c[1] * t1544;
        const V t1566 = t1564 - t1565;
        const V t1567 = t1564 + t1565;
        // spectrum block of 3, multiplier 2
        const V t1568 = t1558 + t1539;
        const V t1569 = c[0] * t1558;
        const V t1570 = t1539 - t1569;
        const V t1571 = c[22] * t1555;
        const V t1572 = c[23] * t1554;
        const V t1573 = t1571 - t1572;
        const V t1574 = t1570 - t1573;
        const V t1575 = t1570 + t1573;
        // spectrum block of 3, multiplier 2
        const V t1576 = t1538 - t1561;
        const V t1577 = c[0] * t1561;
        const V t1578 = t1577 + t1538;
        const V t1579 = c[24] * t1553;
        const V t1580 = c[25] * t1552;
        const V t1581 = t1579 - t1580;
        const V t1582 = t1578 - t1581;
        const V t1583 = t1578 + t1581;
        // spectrum block of 3, multiplier 2
        const V t1584 = t1529 + t1517;
        const V t1585 = c[0] * t1529;
        const V t1586 = t1517 - t1585;
        const V t1587 = c[1] * t1528;
        const V t1588 = t1586 - t1587;
        const V t1589 = t1586 + t1587;
        // complex block of 3, multiplier 2
        const V t1590 = t1532 - t1524;
        const V t1591 = t1533 + t1525;
        const V t1592 = t1532 + t1524;
        const V t1593 = t1533 - t1525;
        const V t1594 = t1590 + t1520;
        const V t1595 = t1591 + t1521;
        const V t1596 = c[0] * t1590;
        const V t1597 = t1520 - t1596;
        const V t1598 = c[0] * t1591;
        const V t1599 = t1521 - t1598;
        const V t1600 = c[1] * t1592;
        const V t1601 = c[1] * t1593;
        const V t1602 = t1597 + t1601;
        const V t1603 = t1599 - t1600;
        const V t1604 = t1597 - t1601;
        const V t1605 = t1599 + t1600;
        // spectrum block of 9, multiplier 2
        const V t1606 = c[2] * t1604;
        const V t1607 = c[3] * t1605;
        const V t1608 = t1607 - t1606;
        const V t1609 = c[4] * t1602;
        const V t1610 = c[5] * t1603;
        const V t1611 = t1610 + t1609;
        // spectrum block of 3, multiplier 2
        const V t1612 = t1595 + t1584;
        const V t1613 = c[0] * t1595;
        const V t1614 = t1584 - t1613;
        const V t1615 = c[1] * t1594;
        const V t1616 = t1614 - t1615;
        const V t1617 = t1614 + t1615;
        // spectrum block of 3, multiplier 2
        const V t1618 = t1608 + t1589;
        const V t1619 = c[0] * t1608;
        const V t1620 = t1589 - t1619;
        const V t1621 = c[23] * t1604;
        const V t1622 = c[22] * t1605;
        const V t1623 = t1621 + t1622;
        const V t1624 = t1620 - t1623;
        const V t1625 = t1620 + t1623;
        // spectrum block of 3, multiplier 2
        const V t1626 = t1588 - t1611;
        const V t1627 = c[0] * t1611;
        const V t1628 = t1627 + t1588;
        const V t1629 = c[24] * t1603;
        const V t1630 = c[25] * t1602;
        const V t1631 = t1629 - t1630;
        const V t1632 = t1628 - t1631;
        const V t1633 = t1628 + t1631;
        // spectrum block of 2
        const V t1634 = t1417 + t1515;
        const V t1635 = t1417 - t1515;
        // complex block of 2
        const V t1636 = t1441 + t1501;
        const V t1637 = t1438 - t1498;
        const V t1638 = t1501 - t1441;
        const V t1639 = t1438 + t1498;
        // complex block of 2
        const V t1640 = t1465 - t1477;
        const V t1641 = t1462 - t1474;
        const V t1642 = t1465 + t1477;
        const V t1643 = t1462 + t1474;
        // complex block of 2
        const V t1644 = t1489 - t1453;
        const V t1645 = t1486 - t1450;
        const V t1646 = t1489 + t1453;
        const V t1647 = t1486 + t1450;
        // complex block of 2
        const V t1648 = t1513 - t1429;
        const V t1649 = t1510 - t1426;
        const V t1650 = t1513 + t1429;
        const V t1651 = t1510 + t1426;
        // spectrum block of 3, multiplier 2
        const V t1652 = t1645 + t1634;
        const V t1653 = c[0] * t1645;
        const V t1654 = t1634 - t1653;
        const V t1655 = c[1] * t1644;
        const V t1656 = t1654 - t1655;
        const V t1657 = t1654 + t1655;
        // complex block of 3, multiplier 2
        const V t1658 = t1648 - t1640;
        const V t1659 = t1649 + t1641;
        const V t1660 = t1648 + t1640;
        const V t1661 = t1649 - t1641;
        const V t1662 = t1658 - t1636;
        const V t1663 = t1659 + t1637;
        const V t1664 = c[0] * t1658;
        const V t1665 = t1636 + t1664;
        const V t1666 = c[0] * t1659;
        const V t1667 = t1637 - t1666;
        const V t1668 = c[1] * t1660;
        const V t1669 = c[1] * t1661;
        const V t1670 = t1669 - t1665;
        const V t1671 = t1667 - t1668;
        const V t1672 = t1665 + t1669;
        const V t1673 = t1667 + t1668;
        // spectrum block of 9, multiplier 2
        const V t1674 = c[2] * t1672;
        const V t1675 = c[3] * t1673;
        const V t1676 = t1675 + t1674;
        const V t1677 = c[4] * t1670;
        const V t1678 = c[5] * t1671;
        const V t1679 = t1678 + t1677;
        // spectrum block of 3, multiplier 2
        const V t1680 = t1663 + t1652;
        const V t1681 = c[0] * t1663;
        const V t1682 = t1652 - t1681;
        const V t1683 = c[1] * t1662;
        const V t1684 = t1682 - t1683;
        const V t1685 = t1682 + t1683;
        // spectrum block of 3, multiplier 2
        const V t1686 = t1676 + t1657;
        const V t1687 = c[0] * t1676;
        const V t1688 = t1657 - t1687;
        const V t1689 = c[22] * t1673;
        const V t1690 = c[23] * t1672;
        const V t1691 = t1689 - t1690;
        const V t1692 = t1688 - t1691;
        const V t1693 = t1688 + t1691;
        // spectrum block of 3, multiplier 2
        const V t1694 = t1656 - t1679;
        const V t1695 = c[0] * t1679;
        const V t1696 = t1695 + t1656;
        const V t1697 = c[24] * t1671;
        const V t1698 = c[25] * t1670;
        const V t1699 = t1697 - t1698;
        const V t1700 = t1696 - t1699;
        const V t1701 = t1696 + t1699;
        // spectrum block of 3, multiplier 2
        const V t1702 = t1647 + t1635;
        const V t1703 = c[0] * t1647;
        const V t1704 = t1635 - t1703;
        const V t1705 = c[1] * t1646;
        const V t1706 = t1704 - t1705;
        const V t1707 = t1704 + t1705;
        // complex block of 3, multiplier 2
        const V t1708 = t1650 - t1642;
        const V t1709 = t1651 + t1643;
        const V t1710 = t1650 + t1642;
        const V t1711 = t1651 - t1643;
        const V t1712 = t1708 + t1638;
        const V t1713 = t1709 + t1639;
        const V t1714 = c[0] * t1708;
        const V t1715 = t1638 - t1714;
        const V t1716 = c[0] * t1709;
        const V t1717 = t1639 - t1716;
        const V t1718 = c[1] * t1710;
        const V t1719 = c[1] * t1711;
        const V t1720 = t1715 + t1719;
        const V t1721 = t1717 - t1718;
        const V t1722 = t1715 - t1719;
        const V t1723 = t1717 + t1718;
        // spectrum block of 9, multiplier 2
        const V t1724 = c[2] * t1722;
        const V t1725 = c[3] * t1723;
        const V t1726 = t1725 - t1724;
        const V t1727 = c[4] * t1720;
        const V t1728 = c[5] * t1721;
        const V t1729 = t1728 + t1727;
        // spectrum block of 3, multiplier 2
        const V t1730 = t1713 + t1702;
        const V t1731 = c[0] * t1713;
        const V t1732 = t1702 - t1731;
        const V t1733 = c[1] * t1712;
        const V t1734 = t1732 - t1733;
        const V t1735 = t1732 + t1733;
        // spectrum block of 3, multiplier 2
        const V t1736 = t1726 + t1707;
        const V t1737 = c[0] * t1726;
        const V t1738 = t1707 - t1737;
        const V t1739 = c[23] * t1722;
        const V t1740 = c[22] * t1723;
        const V t1741 = t1739 + t1740;
        const V t1742 = t1738 - t1741;
        const V t1743 = t1738 + t1741;
        // spectrum block of 3, multiplier 2
        const V t1744 = t1706 - t1729;
        const V t1745 = c[0] * t1729;
        const V t1746 = t1745 + t1706;
        const V t1747 = c[24] * t1721;
        const V t1748 = c[25] * t1720;
        const V t1749 = t1747 - t1748;
        const V t1750 = t1746 - t1749;
        const V t1751 = t1746 + t1749;
        // complex block of 3
        const V t1752 = t828 + t1412;
        const V t1753 = t829 + t1413;
        const V t1754 = t828 - t1412;
        const V t1755 = t829 - t1413;
        const V t1756 = t1752 + t244;
        io.re(0, t1756);
        const V t1757 = t1753 + t245;
        io.im(0, t1757);
        const V t1758 = c[0] * t1752;
        const V t1759 = t244 - t1758;
        const V t1760 = c[0] * t1753;
        const V t1761 = t245 - t1760;
        const V t1762 = c[1] * t1754;
        const V t1763 = c[1] * t1755;
        const V t1764 = t1759 + t1763;
        io.re(19, t1764);
        const V t1765 = t1761 - t1762;
        io.im(19, t1765);
        const V t1766 = t1759 - t1763;
        io.re(38, t1766);
        const V t1767 = t1761 + t1762;
        io.im(38, t1767);
        // complex block of 3
        const V t1768 = t978 + t1562;
        const V t1769 = t1096 + t1680;
        const V t1770 = t978 - t1562;
        const V t1771 = t1096 - t1680;
        const V t1772 = t1768 + t394;
        io.re(3, t1772);
        const V t1773 = t1769 + t512;
        io.im(3, t1773);
        const V t1774 = c[0] * t1768;
        const V t1775 = t394 - t1774;
        const V t1776 = c[0] * t1769;
        const V t1777 = t512 - t1776;
        const V t1778 = c[1] * t1770;
        const V t1779 = c[1] * t1771;
        const V t1780 = t1775 + t1779;
        io.re(22, t1780);
        const V t1781 = t1777 - t1778;
        io.im(22, t1781);
        const V t1782 = t1775 - t1779;
        io.re(41, t1782);
        const V t1783 = t1777 + t1778;
        io.im(41, t1783);
        // complex block of 3
        const V t1784 = t1041 + t1625;
        const V t1785 = t1159 + t1743;
        const V t1786 = t1041 - t1625;
        const V t1787 = t1159 - t1743;
        const V t1788 = t1784 + t457;
        io.re(6, t1788);
        const V t1789 = t1785 + t575;
        io.im(6, t1789);
        const V t1790 = c[0] * t1784;
        const V t1791 = t457 - t1790;
        const V t1792 = c[0] * t1785;
        const V t1793 = t575 - t1792;
        const V t1794 = c[1] * t1786;
        const V t1795 = c[1] * t1787;
        const V t1796 = t1791 + t1795;
        io.re(25, t1796);
        const V t1797 = t1793 - t1794;
        io.im(25, t1797);
        const V t1798 = t1791 - t1795;
        io.re(44, t1798);
        const V t1799 = t1793 + t1794;
        io.im(44, t1799);
        // complex block of 3
        const V t1800 = t1040 + t1624;
        const V t1801 = t1158 + t1742;
        const V t1802 = t1040 - t1624;
        const V t1803 = t1158 - t1742;
        const V t1804 = t1800 + t456;
        io.re(9, t1804);
        const V t1805 = t1801 + t574;
        io.im(9, t1805);
        const V t1806 = c[0] * t1800;
        const V t1807 = t456 - t1806;
        const V t1808 = c[0] * t1801;
        const V t1809 = t574 - t1808;
        const V t1810 = c[1] * t1802;
        const V t1811 = c[1] * t1803;
        const V t1812 = t1807 + t1811;
        io.re(28, t1812);
        const V t1813 = t1809 - t1810;
        io.im(28, t1813);
        const V t1814 = t1807 - t1811;
        io.re(47, t1814);
        const V t1815 = t1809 + t1810;
        io.im(47, t1815);
        // complex block of 3
        const V t1816 = t998 + t1582;
        const V t1817 = t1116 + t1700;
        const V t1818 = t998 - t1582;
        const V t1819 = t1116 - t1700;
        const V t1820 = t1816 + t414;
        io.re(12, t1820);
        const V t1821 = t1817 + t532;
        io.im(12, t1821);
        const V t1822 = c[0] * t1816;
        const V t1823 = t414 - t1822;
        const V t1824 = c[0] * t1817;
        const V t1825 = t532 - t1824;
        const V t1826 = c[1] * t1818;
        const V t1827 = c[1] * t1819;
        const V t1828 = t1823 + t1827;
        io.re(31, t1828);
        const V t1829 = t1825 - t1826;
        io.im(31, t1829);
        const V t1830 = t1823 - t1827;
        io.re(50, t1830);
        const V t1831 = t1825 + t1826;
        io.im(50, t1831);
        // complex block of 3
        const V t1832 = t984 + t1568;
        const V t1833 = t1102 + t1686;
        const V t1834 = t984 - t1568;
        const V t1835 = t1102 - t1686;
        const V t1836 = t1832 + t400;
        io.re(15, t1836);
        const V t1837 = t1833 + t518;
        io.im(15, t1837);
        const V t1838 = c[0] * t1832;
        const V t1839 = t400 - t1838;
        const V t1840 = c[0] * t1833;
        const V t1841 = t518 - t1840;
        const V t1842 = c[1] * t1834;
        const V t1843 = c[1] * t1835;
        const V t1844 = t1839 + t1843;
        io.re(34, t1844);
        const V t1845 = t1841 - t1842;
        io.im(34, t1845);
        const V t1846 = t1839 - t1843;
        io.re(53, t1846);
        const V t1847 = t1841 + t1842;
        io.im(53, t1847);
        // complex block of 3
        const V t1848 = t992 + t1576;
        const V t1849 = t1110 + t1694;
        const V t1850 = t992 - t1576;
        const V t1851 = t1110 - t1694;
        const V t1852 = t1848 + t408;
        io.re(18, t1852);
        const V t1853 = t1849 + t526;
        io.im(18, t1853);
        const V t1854 = c[0] * t1848;
        const V t1855 = t408 - t1854;
        const V t1856 = c[0] * t1849;
        const V t1857 = t526 - t1856;
        const V t1858 = c[1] * t1850;
        const V t1859 = c[1] * t1851;
        const V t1860 = t1855 + t1859;
        io.re(37, t1860);
        const V t1861 = t1857 - t1858;
        io.im(37, t1861);
        const V t1862 = t1855 - t1859;
        io.re(56, t1862);
        const V t1863 = t1857 + t1858;
        io.im(56, t1863);
        // complex block of 3
        const V t1864 = t982 + t1566;
        const V t1865 = t1100 + t1684;
        const V t1866 = t982 - t1566;
        const V t1867 = t1100 - t1684;
        const V t1868 = t1864 + t398;
        io.re(21, t1868);
        const V t1869 = t1865 + t516;
        io.im(21, t1869);
        const V t1870 = c[0] * t1864;
        const V t1871 = t398 - t1870;
        const V t1872 = c[0] * t1865;
        const V t1873 = t516 - t1872;
        const V t1874 = c[1] * t1866;
        const V t1875 = c[1] * t1867;
        const V t1876 = t1871 + t1875;
        io.re(40, t1876);
        const V t1877 = t1873 - t1874;
        io.im(40, t1877);
        const V t1878 = t1871 - t1875;
        io.re(2, t1878);
        const V t1879 = t1873 + t1874;
        io.im(2, t1879);
        // complex block of 3
        const V t1880 = t1033 + t1617;
        const V t1881 = t1151 + t1735;
        const V t1882 = t1033 - t1617;
        const V t1883 = t1151 - t1735;
        const V t1884 = t1880 + t449;
        io.re(24, t1884);
        const V t1885 = t1881 + t567;
        io.im(24, t1885);
        const V t1886 = c[0] * t1880;
        const V t1887 = t449 - t1886;
        const V t1888 = c[0] * t1881;
        const V t1889 = t567 - t1888;
        const V t1890 = c[1] * t1882;
        const V t1891 = c[1] * t1883;
        const V t1892 = t1887 + t1891;
        io.re(43, t1892);
        const V t1893 = t1889 - t1890;
        io.im(43, t1893);
        const V t1894 = t1887 - t1891;
        io.re(5, t1894);
        const V t1895 = t1889 + t1890;
        io.im(5, t1895);
        // complex block of 3
        const V t1896 = t999 + t1583;
        const V t1897 = t1117 + t1701;
        const V t1898 = t999 - t1583;
        const V t1899 = t1117 - t1701;
        const V t1900 = t1896 + t415;
        io.re(27, t1900);
        const V t1901 = t1897 + t533;
        io.im(27, t1901);
        const V t1902 = c[0] * t1896;
        const V t1903 = t415 - t1902;
        const V t1904 = c[0] * t1897;
        const V t1905 = t533 - t1904;
        const V t1906 = c[1] * t1898;
        const V t1907 = c[1] * t1899;
        const V t1908 = t1903 + t1907;
        io.re(46, t1908);
        const V t1909 = t1905 - t1906;
        io.im(46, t1909);
        const V t1910 = t1903 - t1907;
        io.re(8, t1910);
        const V t1911 = t1905 + t1906;
        io.im(8, t1911);
        // complex block of 3
        const V t1912 = t1049 + t1633;
        const V t1913 = t1167 + t1751;
        const V t1914 = t1049 - t1633;
        const V t1915 = t1167 - t1751;
        const V t1916 = t1912 + t465;
        io.re(30, t1916);
        const V t1917 = t1913 + t583;
        io.im(30, t1917);
        const V t1918 = c[0] * t1912;
        const V t1919 = t465 - t1918;
        const V t1920 = c[0] * t1913;
        const V t1921 = t583 - t1920;
        const V t1922 = c[1] * t1914;
        const V t1923 = c[1] * t1915;
        const V t1924 = t1919 + t1923;
        io.re(49, t1924);
        const V t1925 = t1921 - t1922;
        io.im(49, t1925);
        const V t1926 = t1919 - t1923;
        io.re(11, t1926);
        const V t1927 = t1921 + t1922;
        io.im(11, t1927);
        // complex block of 3
        const V t1928 = t983 + t1567;
        const V t1929 = t1101 + t1685;
        const V t1930 = t983 - t1567;
        const V t1931 = t1101 - t1685;
        const V t1932 = t1928 + t399;
        io.re(33, t1932);
        const V t1933 = t1929 + t517;
        io.im(33, t1933);
        const V t1934 = c[0] * t1928;
        const V t1935 = t399 - t1934;
        const V t1936 = c[0] * t1929;
        const V t1937 = t517 - t1936;
        const V t1938 = c[1] * t1930;
        const V t1939 = c[1] * t1931;
        const V t1940 = t1935 + t1939;
        io.re(52, t1940);
        const V t1941 = t1937 - t1938;
        io.im(52, t1941);
        const V t1942 = t1935 - t1939;
        io.re(14, t1942);
        const V t1943 = t1937 + t1938;
        io.im(14, t1943);
        // complex block of 3
        const V t1944 = t1032 + t1616;
        const V t1945 = t1150 + t1734;
        const V t1946 = t1032 - t1616;
        const V t1947 = t1150 - t1734;
        const V t1948 = t1944 + t448;
        io.re(36, t1948);
        const V t1949 = t1945 + t566;
        io.im(36, t1949);
        const V t1950 = c[0] * t1944;
        const V t1951 = t448 - t1950;
        const V t1952 = c[0] * t1945;
        const V t1953 = t566 - t1952;
        const V t1954 = c[1] * t1946;
        const V t1955 = c[1] * t1947;
        const V t1956 = t1951 + t1955;
        io.re(55, t1956);
        const V t1957 = t1953 - t1954;
        io.im(55, t1957);
        const V t1958 = t1951 - t1955;
        io.re(17, t1958);
        const V t1959 = t1953 + t1954;
        io.im(17, t1959);
        // complex block of 3
        const V t1960 = t1042 + t1626;
        const V t1961 = t1160 + t1744;
        const V t1962 = t1042 - t1626;
        const V t1963 = t1160 - t1744;
        const V t1964 = t1960 + t458;
        io.re(39, t1964);
        const V t1965 = t1961 + t576;
        io.im(39, t1965);
        const V t1966 = c[0] * t1960;
        const V t1967 = t458 - t1966;
        const V t1968 = c[0] * t1961;
        const V t1969 = t576 - t1968;
        const V t1970 = c[1] * t1962;
        const V t1971 = c[1] * t1963;
        const V t1972 = t1967 + t1971;
        io.re(1, t1972);
        const V t1973 = t1969 - t1970;
        io.im(1, t1973);
        const V t1974 = t1967 - t1971;
        io.re(20, t1974);
        const V t1975 = t1969 + t1970;
        io.im(20, t1975);
        // complex block of 3
        const V t1976 = t1034 + t1618;
        const V t1977 = t1152 + t1736;
        const V t1978 = t1034 - t1618;
        const V t1979 = t1152 - t1736;
        const V t1980 = t1976 + t450;
        io.re(42, t1980);
        const V t1981 = t1977 + t568;
        io.im(42, t1981);
        const V t1982 = c[0] * t1976;
        const V t1983 = t450 - t1982;
        const V t1984 = c[0] * t1977;
        const V t1985 = t568 - t1984;
        const V t1986 = c[1] * t1978;
        const V t1987 = c[1] * t1979;
        const V t1988 = t1983 + t1987;
        io.re(4, t1988);
        const V t1989 = t1985 - t1986;
        io.im(4, t1989);
        const V t1990 = t1983 - t1987;
        io.re(23, t1990);
        const V t1991 = t1985 + t1986;
        io.im(23, t1991);
        // complex block of 3
        const V t1992 = t1048 + t1632;
        const V t1993 = t1166 + t1750;
        const V t1994 = t1048 - t1632;
        const V t1995 = t1166 - t1750;
        const V t1996 = t1992 + t464;
        io.re(45, t1996);
        const V t1997 = t1993 + t582;
        io.im(45, t1997);
        const V t1998 = c[0] * t1992;
        const V t1999 = t464 - t1998;
        const V t2000 = c[0] * t1993;
        const V t2001 = t582 - t2000;
        const V t2002 = c[1] * t1994;
        const V t2003 = c[1] * t1995;
        const V t2004 = t1999 + t2003;
        io.re(7, t2004);
        const V t2005 = t2001 - t2002;
        io.im(7, t2005);
        const V t2006 = t1999 - t2003;
        io.re(26, t2006);
        const V t2007 = t2001 + t2002;
        io.im(26, t2007);
        // complex block of 3
        const V t2008 = t990 + t1574;
        const V t2009 = t1108 + t1692;
        const V t2010 = t990 - t1574;
        const V t2011 = t1108 - t1692;
        const V t2012 = t2008 + t406;
        io.re(48, t2012);
        const V t2013 = t2009 + t524;
        io.im(48, t2013);
        const V t2014 = c[0] * t2008;
        const V t2015 = t406 - t2014;
        const V t2016 = c[0] * t2009;
        const V t2017 = t524 - t2016;
        const V t2018 = c[1] * t2010;
        const V t2019 = c[1] * t2011;
        const V t2020 = t2015 + t2019;
        io.re(10, t2020);
        const V t2021 = t2017 - t2018;
        io.im(10, t2021);
        const V t2022 = t2015 - t2019;
        io.re(29, t2022);
        const V t2023 = t2017 + t2018;
        io.im(29, t2023);
        // complex block of 3
        const V t2024 = t991 + t1575;
        const V t2025 = t1109 + t1693;
        const V t2026 = t991 - t1575;
        const V t2027 = t1109 - t1693;
        const V t2028 = t2024 + t407;
        io.re(51, t2028);
        const V t2029 = t2025 + t525;
        io.im(51, t2029);
        const V t2030 = c[0] * t2024;
        const V t2031 = t407 - t2030;
        const V t2032 = c[0] * t2025;
        const V t2033 = t525 - t2032;
        const V t2034 = c[1] * t2026;
        const V t2035 = c[1] * t2027;
        const V t2036 = t2031 + t2035;
        io.re(13, t2036);
        const V t2037 = t2033 - t2034;
        io.im(13, t2037);
        const V t2038 = t2031 - t2035;
        io.re(32, t2038);
        const V t2039 = t2033 + t2034;
        io.im(32, t2039);
        // complex block of 3
        const V t2040 = t1028 + t1612;
        const V t2041 = t1146 + t1730;
        const V t2042 = t1028 - t1612;
        const V t2043 = t1146 - t1730;
        const V t2044 = t2040 + t444;
        io.re(54, t2044);
        const V t2045 = t2041 + t562;
        io.im(54, t2045);
        const V t2046 = c[0] * t2040;
        const V t2047 = t444 - t2046;
        const V t2048 = c[0] * t2041;
        const V t2049 = t562 - t2048;
        const V t2050 = c[1] * t2042;
        const V t2051 = c[1] * t2043;
        const V t2052 = t2047 + t2051;
        io.re(16, t2052);
        const V t2053 = t2049 - t2050;
        io.im(16, t2053);
        const V t2054 = t2047 - t2051;
        io.re(35, t2054);
        const V t2055 = t2049 + t2050;
        io.im(35, t2055);
    }
};

}  // namespace zulg
