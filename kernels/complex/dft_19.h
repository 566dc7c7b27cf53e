// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 19.
// Complex DFT of 19 points, Rader block.
// 182 additions, 182 subtractions, 220 multiplications (258 with `scale`); 28 constants; 39 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<19> {
    static constexpr int steps = 622;  // with `scale`
    static constexpr double inverseRoot = 0.22941573387056174;  // 1/sqrt(19), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.09512810652215012,  // c[6]: -P[1] of 19
        0.4748879284463634,  // c[7]: Q[1] of 19
        0.35860066823859316,  // c[8]: Q[2] of 19
        0.32553565392043055,  // c[9]: P[2] of 19
        0.48200335114804865,  // c[10]: P[3] of 19
        0.04733572347201245,  // c[11]: -Q[3] of 19
        0.3169022121664568,  // c[12]: Q[4] of 19
        0.3662524937233519,  // c[13]: P[4] of 19
        0.31107402086032515,  // c[14]: -P[5] of 19
        0.3712153751939134,  // c[15]: -Q[5] of 19
        0.46112591934192776,  // c[16]: Q[6] of 19
        0.1480904714883096,  // c[17]: -P[6] of 19
        0.48361283902825675,  // c[18]: P[7] of 19
        0.026201587005319653,  // c[19]: Q[7] of 19
        0.1584341653811184,  // c[20]: -Q[8] of 19
        0.4576751211007174,  // c[21]: P[8] of 19
        0.1503837331804353,  // c[22]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[23]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[24]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[25]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x18r = io.re(18);
        const V t0 = x1r + x18r;
        const V t1 = x1r - x18r;
        // real block of 2
        const V x4r = io.re(4);
        const V x15r = io.re(15);
        const V t2 = x4r + x15r;
        const V t3 = x4r - x15r;
        // real block of 2
        const V x16r = io.re(16);
        const V x3r = io.re(3);
        const V t4 = x16r + x3r;
        const V t5 = x16r - x3r;
        // real block of 2
        const V x7r = io.re(7);
        const V x12r = io.re(12);
        const V t6 = x7r + x12r;
        const V t7 = x7r - x12r;
        // real block of 2
        const V x9r = io.re(9);
        const V x10r = io.re(10);
        const V t8 = x9r + x10r;
        const V t9 = x9r - x10r;
        // real block of 2
        const V x17r = io.re(17);
        const V x2r = io.re(2);
        const V t10 = x17r + x2r;
        const V t11 = x17r - x2r;
        // real block of 2
        const V x11r = io.re(11);
        const V x8r = io.re(8);
        const V t12 = x11r + x8r;
        const V t13 = x11r - x8r;
        // real block of 2
        const V x6r = io.re(6);
        const V x13r = io.re(13);
        const V t14 = x6r + x13r;
        const V t15 = x6r - x13r;
        // real block of 2
        const V x5r = io.re(5);
        const V x14r = io.re(14);
        const V t16 = x5r + x14r;
        const V t17 = x5r - x14r;
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
        const V x1i = io.im(1);
        const V x18i = io.im(18);
        const V t122 = x1i + x18i;
        const V t123 = x1i - x18i;
        // real block of 2
        const V x4i = io.im(4);
        const V x15i = io.im(15);
        const V t124 = x4i + x15i;
        const V t125 = x4i - x15i;
        // real block of 2
        const V x16i = io.im(16);
        const V x3i = io.im(3);
        const V t126 = x16i + x3i;
        const V t127 = x16i - x3i;
        // real block of 2
        const V x7i = io.im(7);
        const V x12i = io.im(12);
        const V t128 = x7i + x12i;
        const V t129 = x7i - x12i;
        // real block of 2
        const V x9i = io.im(9);
        const V x10i = io.im(10);
        const V t130 = x9i + x10i;
        const V t131 = x9i - x10i;
        // real block of 2
        const V x17i = io.im(17);
        const V x2i = io.im(2);
        const V t132 = x17i + x2i;
        const V t133 = x17i - x2i;
        // real block of 2
        const V x11i = io.im(11);
        const V x8i = io.im(8);
        const V t134 = x11i + x8i;
        const V t135 = x11i - x8i;
        // real block of 2
        const V x6i = io.im(6);
        const V x13i = io.im(13);
        const V t136 = x6i + x13i;
        const V t137 = x6i - x13i;
        // real block of 2
        const V x5i = io.im(5);
        const V x14i = io.im(14);
        const V t138 = x5i + x14i;
        const V t139 = x5i - x14i;
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
        // complex block of 19
        const V x0r = io.re(0);
        const V t244 = x0r + t38;
        const V x0i = io.im(0);
        io.re(0, t244);
        const V t245 = x0i + t160;
        io.im(0, t245);
        const V t246 = c[26] * t38;
        const V t247 = x0r - t246;
        const V t248 = c[26] * t160;
        const V t249 = x0i - t248;
        const V t250 = c[6] * t243;
        const V t251 = c[7] * t242;
        const V t252 = t251 - t250;
        const V t253 = c[6] * t242;
        const V t254 = c[7] * t243;
        const V t255 = t254 + t253;
        const V t256 = c[6] * t121;
        const V t257 = c[7] * t120;
        const V t258 = t256 - t257;
        const V t259 = c[6] * t120;
        const V t260 = c[7] * t121;
        const V t261 = t260 + t259;
        const V t262 = c[8] * t59;
        const V t263 = c[9] * t58;
        const V t264 = t263 - t262;
        const V t265 = c[8] * t58;
        const V t266 = c[9] * t59;
        const V t267 = t266 + t265;
        const V t268 = c[8] * t181;
        const V t269 = c[9] * t180;
        const V t270 = t269 - t268;
        const V t271 = c[8] * t180;
        const V t272 = c[9] * t181;
        const V t273 = t272 + t271;
        const V t274 = c[10] * t215;
        const V t275 = c[11] * t214;
        const V t276 = t274 - t275;
        const V t277 = c[10] * t214;
        const V t278 = c[11] * t215;
        const V t279 = t278 + t277;
        const V t280 = c[10] * t93;
        const V t281 = c[11] * t92;
        const V t282 = t281 - t280;
        const V t283 = c[10] * t92;
        const V t284 = c[11] * t93;
        const V t285 = t284 + t283;
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
        const V t300 = t298 - t299;
        const V t301 = c[14] * t240;
        const V t302 = c[15] * t241;
        const V t303 = t302 + t301;
        const V t304 = c[14] * t119;
        const V t305 = c[15] * t118;
        const V t306 = t305 - t304;
        const V t307 = c[14] * t118;
        const V t308 = c[15] * t119;
        const V t309 = t308 + t307;
        const V t310 = c[16] * t41;
        const V t311 = c[17] * t40;
        const V t312 = t311 + t310;
        const V t313 = c[16] * t40;
        const V t314 = c[17] * t41;
        const V t315 = t313 - t314;
        const V t316 = c[16] * t163;
        const V t317 = c[17] * t162;
        const V t318 = t317 + t316;
        const V t319 = c[16] * t162;
        const V t320 = c[17] * t163;
        const V t321 = t319 - t320;
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
        const V t336 = t335 + t334;
        const V t337 = c[20] * t68;
        const V t338 = c[21] * t69;
        const V t339 = t338 - t337;
        const V t340 = c[20] * t191;
        const V t341 = c[21] * t190;
        const V t342 = t341 + t340;
        const V t343 = c[20] * t190;
        const V t344 = c[21] * t191;
        const V t345 = t344 - t343;
        const V t346 = c[27] * t212;
        const V t347 = c[27] * t90;
        // spectrum block of 2
        const V t348 = t247 + t346;
        const V t349 = t247 - t346;
        // complex block of 2
        const V t350 = t267 - t327;
        const V t351 = t264 + t324;
        const V t352 = t267 + t327;
        const V t353 = t264 - t324;
        // complex block of 2
        const V t354 = t291 + t303;
        const V t355 = t288 + t300;
        const V t356 = t291 - t303;
        const V t357 = t288 - t300;
        // complex block of 2
        const V t358 = t315 - t279;
        const V t359 = t276 - t312;
        const V t360 = t315 + t279;
        const V t361 = t312 + t276;
        // complex block of 2
        const V t362 = t339 + t255;
        const V t363 = t336 + t252;
        const V t364 = t339 - t255;
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
        const V t376 = t372 + t350;
        const V t377 = t373 + t351;
        const V t378 = c[0] * t372;
        const V t379 = t350 - t378;
        const V t380 = c[0] * t373;
        const V t381 = t351 - t380;
        const V t382 = c[1] * t374;
        const V t383 = c[1] * t375;
        const V t384 = t379 + t383;
        const V t385 = t381 - t382;
        const V t386 = t379 - t383;
        const V t387 = t381 + t382;
        // spectrum block of 9, multiplier 2
        const V t388 = c[2] * t386;
        const V t389 = c[3] * t387;
        const V t390 = t389 - t388;
        const V t391 = c[4] * t384;
        const V t392 = c[5] * t385;
        const V t393 = t392 + t391;
        // spectrum block of 3, multiplier 2
        const V t394 = t377 + t366;
        io.re(1, t394);
        const V t395 = c[0] * t377;
        const V t396 = t366 - t395;
        const V t397 = c[1] * t376;
        const V t398 = t396 - t397;
        io.re(7, t398);
        const V t399 = t396 + t397;
        io.re(11, t399);
        // spectrum block of 3, multiplier 2
        const V t400 = t390 + t371;
        io.re(5, t400);
        const V t401 = c[0] * t390;
        const V t402 = t371 - t401;
        const V t403 = c[22] * t386;
        const V t404 = c[23] * t387;
        const V t405 = t403 + t404;
        const V t406 = t402 - t405;
        io.re(16, t406);
        const V t407 = t402 + t405;
        io.re(17, t407);
        // spectrum block of 3, multiplier 2
        const V t408 = t370 - t393;
        io.re(6, t408);
        const V t409 = c[0] * t393;
        const V t410 = t409 + t370;
        const V t411 = c[24] * t385;
        const V t412 = c[25] * t384;
        const V t413 = t411 - t412;
        const V t414 = t410 - t413;
        io.re(4, t414);
        const V t415 = t410 + t413;
        io.re(9, t415);
        // spectrum block of 3, multiplier 2
        const V t416 = t349 - t361;
        const V t417 = c[0] * t361;
        const V t418 = t417 + t349;
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
        io.re(18, t444);
        const V t445 = c[0] * t427;
        const V t446 = t416 - t445;
        const V t447 = c[1] * t426;
        const V t448 = t446 - t447;
        io.re(12, t448);
        const V t449 = t446 + t447;
        io.re(8, t449);
        // spectrum block of 3, multiplier 2
        const V t450 = t440 + t421;
        io.re(14, t450);
        const V t451 = c[0] * t440;
        const V t452 = t421 - t451;
        const V t453 = c[22] * t436;
        const V t454 = c[23] * t437;
        const V t455 = t453 + t454;
        const V t456 = t452 - t455;
        io.re(3, t456);
        const V t457 = t452 + t455;
        io.re(2, t457);
        // spectrum block of 3, multiplier 2
        const V t458 = t420 - t443;
        io.re(13, t458);
        const V t459 = c[0] * t443;
        const V t460 = t459 + t420;
        const V t461 = c[24] * t435;
        const V t462 = c[25] * t434;
        const V t463 = t461 - t462;
        const V t464 = t460 - t463;
        io.re(15, t464);
        const V t465 = t460 + t463;
        io.re(10, t465);
        // spectrum block of 2
        const V t466 = t249 - t347;
        const V t467 = t249 + t347;
        // complex block of 2
        const V t468 = t273 - t333;
        const V t469 = t270 - t330;
        const V t470 = t273 + t333;
        const V t471 = t270 + t330;
        // complex block of 2
        const V t472 = t297 - t309;
        const V t473 = t294 + t306;
        const V t474 = t297 + t309;
        const V t475 = t294 - t306;
        // complex block of 2
        const V t476 = t321 + t285;
        const V t477 = t282 - t318;
        const V t478 = t321 - t285;
        const V t479 = t318 + t282;
        // complex block of 2
        const V t480 = t345 - t261;
        const V t481 = t342 + t258;
        const V t482 = t345 + t261;
        const V t483 = t342 - t258;
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
        const V t494 = t490 + t468;
        const V t495 = t491 + t469;
        const V t496 = c[0] * t490;
        const V t497 = t468 - t496;
        const V t498 = c[0] * t491;
        const V t499 = t469 - t498;
        const V t500 = c[1] * t492;
        const V t501 = c[1] * t493;
        const V t502 = t497 + t501;
        const V t503 = t499 - t500;
        const V t504 = t497 - t501;
        const V t505 = t499 + t500;
        // spectrum block of 9, multiplier 2
        const V t506 = c[2] * t504;
        const V t507 = c[3] * t505;
        const V t508 = t507 - t506;
        const V t509 = c[4] * t502;
        const V t510 = c[5] * t503;
        const V t511 = t510 + t509;
        // spectrum block of 3, multiplier 2
        const V t512 = t495 + t484;
        io.im(1, t512);
        const V t513 = c[0] * t495;
        const V t514 = t484 - t513;
        const V t515 = c[1] * t494;
        const V t516 = t514 - t515;
        io.im(7, t516);
        const V t517 = t514 + t515;
        io.im(11, t517);
        // spectrum block of 3, multiplier 2
        const V t518 = t508 + t489;
        io.im(5, t518);
        const V t519 = c[0] * t508;
        const V t520 = t489 - t519;
        const V t521 = c[22] * t504;
        const V t522 = c[23] * t505;
        const V t523 = t521 + t522;
        const V t524 = t520 - t523;
        io.im(16, t524);
        const V t525 = t520 + t523;
        io.im(17, t525);
        // spectrum block of 3, multiplier 2
        const V t526 = t488 - t511;
        io.im(6, t526);
        const V t527 = c[0] * t511;
        const V t528 = t527 + t488;
        const V t529 = c[24] * t503;
        const V t530 = c[25] * t502;
        const V t531 = t529 - t530;
        const V t532 = t528 - t531;
        io.im(4, t532);
        const V t533 = t528 + t531;
        io.im(9, t533);
        // spectrum block of 3, multiplier 2
        const V t534 = t467 - t479;
        const V t535 = c[0] * t479;
        const V t536 = t535 + t467;
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
        io.im(18, t562);
        const V t563 = c[0] * t545;
        const V t564 = t534 - t563;
        const V t565 = c[1] * t544;
        const V t566 = t564 - t565;
        io.im(12, t566);
        const V t567 = t564 + t565;
        io.im(8, t567);
        // spectrum block of 3, multiplier 2
        const V t568 = t558 + t539;
        io.im(14, t568);
        const V t569 = c[0] * t558;
        const V t570 = t539 - t569;
        const V t571 = c[22] * t554;
        const V t572 = c[23] * t555;
        const V t573 = t571 + t572;
        const V t574 = t570 - t573;
        io.im(3, t574);
        const V t575 = t570 + t573;
        io.im(2, t575);
        // spectrum block of 3, multiplier 2
        const V t576 = t538 - t561;
        io.im(13, t576);
        const V t577 = c[0] * t561;
        const V t578 = t577 + t538;
        const V t579 = c[24] * t553;
        const V t580 = c[25] * t552;
        const V t581 = t579 - t580;
        const V t582 = t578 - t581;
        io.im(15, t582);
        const V t583 = t578 + t581;
        io.im(10, t583);
    }
};

}  // namespace zulg
