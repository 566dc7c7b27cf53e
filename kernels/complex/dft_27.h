// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 27.
// Complex DFT of 27 points, twiddled, inner 9, outer 3.
// 190 additions, 190 subtractions, 220 multiplications (274 with `scale`); 26 constants; 56 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<27> {
    static constexpr int steps = 654;  // with `scale`
    static constexpr double inverseRoot = 0.19245008972987526;  // 1/sqrt(27), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.6427876096865394,  // c[4]: sin 2 pi 1/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.3420201433256687,  // c[6]: sin 2 pi 4/9
        0.9396926207859084,  // c[7]: -cos 2 pi 4/9
        0.44879918020046217,  // c[8]: sin 2 pi 2/27
        0.8936326403234123,  // c[9]: cos 2 pi 2/27
        0.8021231927550437,  // c[10]: sin 2 pi 4/27
        0.5971585917027862,  // c[11]: cos 2 pi 4/27
        0.9579895123154889,  // c[12]: sin 2 pi 8/27
        0.28680323271109026,  // c[13]: -cos 2 pi 8/27
        0.23061587074244017,  // c[14]: sin 2 pi 1/27
        0.9730448705798238,  // c[15]: cos 2 pi 1/27
        0.918216106880274,  // c[16]: sin 2 pi 5/27
        0.39607976603915684,  // c[17]: cos 2 pi 5/27
        0.7273736415730487,  // c[18]: sin 2 pi 10/27
        0.6862416378687336,  // c[19]: -cos 2 pi 10/27
        0.9983081582712682,  // c[20]: sin 2 pi 7/27
        0.05814482891047583,  // c[21]: -cos 2 pi 7/27
        0.11609291412523023,  // c[22]: -sin 2 pi 14/27
        0.993238357741943,  // c[23]: -cos 2 pi 14/27
        0.549508978070806,  // c[24]: -sin 2 pi 16/27
        0.8354878114129364,  // c[25]: -cos 2 pi 16/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3
        const V x9r = io.re(9);
        const V x18r = io.re(18);
        const V t0 = x9r + x18r;
        const V x9i = io.im(9);
        const V x18i = io.im(18);
        const V t1 = x9i + x18i;
        const V t2 = x9r - x18r;
        const V t3 = x9i - x18i;
        const V x0r = io.re(0);
        const V t4 = t0 + x0r;
        const V x0i = io.im(0);
        const V t5 = t1 + x0i;
        const V t6 = c[0] * t0;
        const V t7 = x0r - t6;
        const V t8 = c[0] * t1;
        const V t9 = x0i - t8;
        const V t10 = c[1] * t2;
        const V t11 = c[1] * t3;
        const V t12 = t7 + t11;
        const V t13 = t9 - t10;
        const V t14 = t7 - t11;
        const V t15 = t9 + t10;
        // complex block of 3
        const V x12r = io.re(12);
        const V x21r = io.re(21);
        const V t16 = x12r + x21r;
        const V x12i = io.im(12);
        const V x21i = io.im(21);
        const V t17 = x12i + x21i;
        const V t18 = x12r - x21r;
        const V t19 = x12i - x21i;
        const V x3r = io.re(3);
        const V t20 = t16 + x3r;
        const V x3i = io.im(3);
        const V t21 = t17 + x3i;
        const V t22 = c[0] * t16;
        const V t23 = x3r - t22;
        const V t24 = c[0] * t17;
        const V t25 = x3i - t24;
        const V t26 = c[1] * t18;
        const V t27 = c[1] * t19;
        const V t28 = t23 + t27;
        const V t29 = t25 - t26;
        const V t30 = t23 - t27;
        const V t31 = t25 + t26;
        // complex block of 3
        const V x15r = io.re(15);
        const V x24r = io.re(24);
        const V t32 = x15r + x24r;
        const V x15i = io.im(15);
        const V x24i = io.im(24);
        const V t33 = x15i + x24i;
        const V t34 = x15r - x24r;
        const V t35 = x15i - x24i;
        const V x6r = io.re(6);
        const V t36 = t32 + x6r;
        const V x6i = io.im(6);
        const V t37 = t33 + x6i;
        const V t38 = c[0] * t32;
        const V t39 = x6r - t38;
        const V t40 = c[0] * t33;
        const V t41 = x6i - t40;
        const V t42 = c[1] * t34;
        const V t43 = c[1] * t35;
        const V t44 = t39 + t43;
        const V t45 = t41 - t42;
        const V t46 = t39 - t43;
        const V t47 = t41 + t42;
        // complex block of 3
        const V t48 = t20 + t36;
        const V t49 = t21 + t37;
        const V t50 = t20 - t36;
        const V t51 = t21 - t37;
        const V t52 = t48 + t4;
        const V t53 = t49 + t5;
        const V t54 = c[0] * t48;
        const V t55 = t4 - t54;
        const V t56 = c[0] * t49;
        const V t57 = t5 - t56;
        const V t58 = c[1] * t50;
        const V t59 = c[1] * t51;
        const V t60 = t55 + t59;
        const V t61 = t57 - t58;
        const V t62 = t55 - t59;
        const V t63 = t57 + t58;
        // complex block of 9
        const V t64 = c[4] * t29;
        const V t65 = c[5] * t28;
        const V t66 = t65 + t64;
        const V t67 = c[4] * t28;
        const V t68 = c[5] * t29;
        const V t69 = t68 - t67;
        const V t70 = c[2] * t45;
        const V t71 = c[3] * t44;
        const V t72 = t71 + t70;
        const V t73 = c[2] * t44;
        const V t74 = c[3] * t45;
        const V t75 = t74 - t73;
        // complex block of 3
        const V t76 = t66 + t72;
        const V t77 = t69 + t75;
        const V t78 = t66 - t72;
        const V t79 = t69 - t75;
        const V t80 = t76 + t12;
        const V t81 = t77 + t13;
        const V t82 = c[0] * t76;
        const V t83 = t12 - t82;
        const V t84 = c[0] * t77;
        const V t85 = t13 - t84;
        const V t86 = c[1] * t78;
        const V t87 = c[1] * t79;
        const V t88 = t83 + t87;
        const V t89 = t85 - t86;
        const V t90 = t83 - t87;
        const V t91 = t85 + t86;
        // complex block of 9
        const V t92 = c[2] * t31;
        const V t93 = c[3] * t30;
        const V t94 = t93 + t92;
        const V t95 = c[2] * t30;
        const V t96 = c[3] * t31;
        const V t97 = t96 - t95;
        const V t98 = c[6] * t47;
        const V t99 = c[7] * t46;
        const V t100 = t98 - t99;
        const V t101 = c[6] * t46;
        const V t102 = c[7] * t47;
        const V t103 = t102 + t101;
        // complex block of 3
        const V t104 = t94 + t100;
        const V t105 = t97 - t103;
        const V t106 = t94 - t100;
        const V t107 = t97 + t103;
        const V t108 = t104 + t14;
        const V t109 = t105 + t15;
        const V t110 = c[0] * t104;
        const V t111 = t14 - t110;
        const V t112 = c[0] * t105;
        const V t113 = t15 - t112;
        const V t114 = c[1] * t106;
        const V t115 = c[1] * t107;
        const V t116 = t111 + t115;
        const V t117 = t113 - t114;
        const V t118 = t111 - t115;
        const V t119 = t113 + t114;
        // complex block of 3
        const V x10r = io.re(10);
        const V x19r = io.re(19);
        const V t120 = x10r + x19r;
        const V x10i = io.im(10);
        const V x19i = io.im(19);
        const V t121 = x10i + x19i;
        const V t122 = x10r - x19r;
        const V t123 = x10i - x19i;
        const V x1r = io.re(1);
        const V t124 = t120 + x1r;
        const V x1i = io.im(1);
        const V t125 = t121 + x1i;
        const V t126 = c[0] * t120;
        const V t127 = x1r - t126;
        const V t128 = c[0] * t121;
        const V t129 = x1i - t128;
        const V t130 = c[1] * t122;
        const V t131 = c[1] * t123;
        const V t132 = t127 + t131;
        const V t133 = t129 - t130;
        const V t134 = t127 - t131;
        const V t135 = t129 + t130;
        // complex block of 3
        const V x13r = io.re(13);
        const V x22r = io.re(22);
        const V t136 = x13r + x22r;
        const V x13i = io.im(13);
        const V x22i = io.im(22);
        const V t137 = x13i + x22i;
        const V t138 = x13r - x22r;
        const V t139 = x13i - x22i;
        const V x4r = io.re(4);
        const V t140 = t136 + x4r;
        const V x4i = io.im(4);
        const V t141 = t137 + x4i;
        const V t142 = c[0] * t136;
        const V t143 = x4r - t142;
        const V t144 = c[0] * t137;
        const V t145 = x4i - t144;
        const V t146 = c[1] * t138;
        const V t147 = c[1] * t139;
        const V t148 = t143 + t147;
        const V t149 = t145 - t146;
        const V t150 = t143 - t147;
        const V t151 = t145 + t146;
        // complex block of 3
        const V x16r = io.re(16);
        const V x25r = io.re(25);
        const V t152 = x16r + x25r;
        const V x16i = io.im(16);
        const V x25i = io.im(25);
        const V t153 = x16i + x25i;
        const V t154 = x16r - x25r;
        const V t155 = x16i - x25i;
        const V x7r = io.re(7);
        const V t156 = t152 + x7r;
        const V x7i = io.im(7);
        const V t157 = t153 + x7i;
        const V t158 = c[0] * t152;
        const V t159 = x7r - t158;
        const V t160 = c[0] * t153;
        const V t161 = x7i - t160;
        const V t162 = c[1] * t154;
        const V t163 = c[1] * t155;
        const V t164 = t159 + t163;
        const V t165 = t161 - t162;
        const V t166 = t159 - t163;
        const V t167 = t161 + t162;
        // complex block of 3
        const V t168 = t140 + t156;
        const V t169 = t141 + t157;
        const V t170 = t140 - t156;
        const V t171 = t141 - t157;
        const V t172 = t168 + t124;
        const V t173 = t169 + t125;
        const V t174 = c[0] * t168;
        const V t175 = t124 - t174;
        const V t176 = c[0] * t169;
        const V t177 = t125 - t176;
        const V t178 = c[1] * t170;
        const V t179 = c[1] * t171;
        const V t180 = t175 + t179;
        const V t181 = t177 - t178;
        const V t182 = t175 - t179;
        const V t183 = t177 + t178;
        // complex block of 9
        const V t184 = c[4] * t149;
        const V t185 = c[5] * t148;
        const V t186 = t185 + t184;
        const V t187 = c[4] * t148;
        const V t188 = c[5] * t149;
        const V t189 = t188 - t187;
        const V t190 = c[2] * t165;
        const V t191 = c[3] * t164;
        const V t192 = t191 + t190;
        const V t193 = c[2] * t164;
        const V t194 = c[3] * t165;
        const V t195 = t194 - t193;
        // complex block of 3
        const V t196 = t186 + t192;
        const V t197 = t189 + t195;
        const V t198 = t186 - t192;
        const V t199 = t189 - t195;
        const V t200 = t196 + t132;
        const V t201 = t197 + t133;
        const V t202 = c[0] * t196;
        const V t203 = t132 - t202;
        const V t204 = c[0] * t197;
        const V t205 = t133 - t204;
        const V t206 = c[1] * t198;
        const V t207 = c[1] * t199;
        const V t208 = t203 + t207;
        const V t209 = t205 - t206;
        const V t210 = t203 - t207;
        const V t211 = t205 + t206;
        // complex block of 9
        const V t212 = c[2] * t151;
        const V t213 = c[3] * t150;
        const V t214 = t213 + t212;
        const V t215 = c[2] * t150;
        const V t216 = c[3] * t151;
        const V t217 = t216 - t215;
        const V t218 = c[6] * t167;
        const V t219 = c[7] * t166;
        const V t220 = t218 - t219;
        const V t221 = c[6] * t166;
        const V t222 = c[7] * t167;
        const V t223 = t222 + t221;
        // complex block of 3
        const V t224 = t214 + t220;
        const V t225 = t217 - t223;
        const V t226 = t214 - t220;
        const V t227 = t217 + t223;
        const V t228 = t224 + t134;
        const V t229 = t225 + t135;
        const V t230 = c[0] * t224;
        const V t231 = t134 - t230;
        const V t232 = c[0] * t225;
        const V t233 = t135 - t232;
        const V t234 = c[1] * t226;
        const V t235 = c[1] * t227;
        const V t236 = t231 + t235;
        const V t237 = t233 - t234;
        const V t238 = t231 - t235;
        const V t239 = t233 + t234;
        // complex block of 3
        const V x11r = io.re(11);
        const V x20r = io.re(20);
        const V t240 = x11r + x20r;
        const V x11i = io.im(11);
        const V x20i = io.im(20);
        const V t241 = x11i + x20i;
        const V t242 = x11r - x20r;
        const V t243 = x11i - x20i;
        const V x2r = io.re(2);
        const V t244 = t240 + x2r;
        const V x2i = io.im(2);
        const V t245 = t241 + x2i;
        const V t246 = c[0] * t240;
        const V t247 = x2r - t246;
        const V t248 = c[0] * t241;
        const V t249 = x2i - t248;
        const V t250 = c[1] * t242;
        const V t251 = c[1] * t243;
        const V t252 = t247 + t251;
        const V t253 = t249 - t250;
        const V t254 = t247 - t251;
        const V t255 = t249 + t250;
        // complex block of 3
        const V x14r = io.re(14);
        const V x23r = io.re(23);
        const V t256 = x14r + x23r;
        const V x14i = io.im(14);
        const V x23i = io.im(23);
        const V t257 = x14i + x23i;
        const V t258 = x14r - x23r;
        const V t259 = x14i - x23i;
        const V x5r = io.re(5);
        const V t260 = t256 + x5r;
        const V x5i = io.im(5);
        const V t261 = t257 + x5i;
        const V t262 = c[0] * t256;
        const V t263 = x5r - t262;
        const V t264 = c[0] * t257;
        const V t265 = x5i - t264;
        const V t266 = c[1] * t258;
        const V t267 = c[1] * t259;
        const V t268 = t263 + t267;
        const V t269 = t265 - t266;
        const V t270 = t263 - t267;
        const V t271 = t265 + t266;
        // complex block of 3
        const V x17r = io.re(17);
        const V x26r = io.re(26);
        const V t272 = x17r + x26r;
        const V x17i = io.im(17);
        const V x26i = io.im(26);
        const V t273 = x17i + x26i;
        const V t274 = x17r - x26r;
        const V t275 = x17i - x26i;
        const V x8r = io.re(8);
        const V t276 = t272 + x8r;
        const V x8i = io.im(8);
        const V t277 = t273 + x8i;
        const V t278 = c[0] * t272;
        const V t279 = x8r - t278;
        const V t280 = c[0] * t273;
        const V t281 = x8i - t280;
        const V t282 = c[1] * t274;
        const V t283 = c[1] * t275;
        const V t284 = t279 + t283;
        const V t285 = t281 - t282;
        const V t286 = t279 - t283;
        const V t287 = t281 + t282;
        // complex block of 3
        const V t288 = t260 + t276;
        const V t289 = t261 + t277;
        const V t290 = t260 - t276;
        const V t291 = t261 - t277;
        const V t292 = t288 + t244;
        const V t293 = t289 + t245;
        const V t294 = c[0] * t288;
        const V t295 = t244 - t294;
        const V t296 = c[0] * t289;
        const V t297 = t245 - t296;
        const V t298 = c[1] * t290;
        const V t299 = c[1] * t291;
        const V t300 = t295 + t299;
        const V t301 = t297 - t298;
        const V t302 = t295 - t299;
        const V t303 = t297 + t298;
        // complex block of 9
        const V t304 = c[4] * t269;
        const V t305 = c[5] * t268;
        const V t306 = t305 + t304;
        const V t307 = c[4] * t268;
        const V t308 = c[5] * t269;
        const V t309 = t308 - t307;
        const V t310 = c[2] * t285;
        const V t311 = c[3] * t284;
        const V t312 = t311 + t310;
        const V t313 = c[2] * t284;
        const V t314 = c[3] * t285;
        const V t315 = t314 - t313;
        // complex block of 3
        const V t316 = t306 + t312;
        const V t317 = t309 + t315;
        const V t318 = t306 - t312;
        const V t319 = t309 - t315;
        const V t320 = t316 + t252;
        const V t321 = t317 + t253;
        const V t322 = c[0] * t316;
        const V t323 = t252 - t322;
        const V t324 = c[0] * t317;
        const V t325 = t253 - t324;
        const V t326 = c[1] * t318;
        const V t327 = c[1] * t319;
        const V t328 = t323 + t327;
        const V t329 = t325 - t326;
        const V t330 = t323 - t327;
        const V t331 = t325 + t326;
        // complex block of 9
        const V t332 = c[2] * t271;
        const V t333 = c[3] * t270;
        const V t334 = t333 + t332;
        const V t335 = c[2] * t270;
        const V t336 = c[3] * t271;
        const V t337 = t336 - t335;
        const V t338 = c[6] * t287;
        const V t339 = c[7] * t286;
        const V t340 = t338 - t339;
        const V t341 = c[6] * t286;
        const V t342 = c[7] * t287;
        const V t343 = t342 + t341;
        // complex block of 3
        const V t344 = t334 + t340;
        const V t345 = t337 - t343;
        const V t346 = t334 - t340;
        const V t347 = t337 + t343;
        const V t348 = t344 + t254;
        const V t349 = t345 + t255;
        const V t350 = c[0] * t344;
        const V t351 = t254 - t350;
        const V t352 = c[0] * t345;
        const V t353 = t255 - t352;
        const V t354 = c[1] * t346;
        const V t355 = c[1] * t347;
        const V t356 = t351 + t355;
        const V t357 = t353 - t354;
        const V t358 = t351 - t355;
        const V t359 = t353 + t354;
        // complex block of 3
        const V t360 = t172 + t292;
        const V t361 = t173 + t293;
        const V t362 = t172 - t292;
        const V t363 = t173 - t293;
        const V t364 = t360 + t52;
        io.re(0, t364);
        const V t365 = t361 + t53;
        io.im(0, t365);
        const V t366 = c[0] * t360;
        const V t367 = t52 - t366;
        const V t368 = c[0] * t361;
        const V t369 = t53 - t368;
        const V t370 = c[1] * t362;
        const V t371 = c[1] * t363;
        const V t372 = t367 + t371;
        io.re(9, t372);
        const V t373 = t369 - t370;
        io.im(9, t373);
        const V t374 = t367 - t371;
        io.re(18, t374);
        const V t375 = t369 + t370;
        io.im(18, t375);
        // complex block of 27
        const V t376 = c[14] * t201;
        const V t377 = c[15] * t200;
        const V t378 = t377 + t376;
        const V t379 = c[14] * t200;
        const V t380 = c[15] * t201;
        const V t381 = t380 - t379;
        const V t382 = c[8] * t321;
        const V t383 = c[9] * t320;
        const V t384 = t383 + t382;
        const V t385 = c[8] * t320;
        const V t386 = c[9] * t321;
        const V t387 = t386 - t385;
        // complex block of 3
        const V t388 = t378 + t384;
        const V t389 = t381 + t387;
        const V t390 = t378 - t384;
        const V t391 = t381 - t387;
        const V t392 = t388 + t80;
        io.re(1, t392);
        const V t393 = t389 + t81;
        io.im(1, t393);
        const V t394 = c[0] * t388;
        const V t395 = t80 - t394;
        const V t396 = c[0] * t389;
        const V t397 = t81 - t396;
        const V t398 = c[1] * t390;
        const V t399 = c[1] * t391;
        const V t400 = t395 + t399;
        io.re(10, t400);
        const V t401 = t397 - t398;
        io.im(10, t401);
        const V t402 = t395 - t399;
        io.re(19, t402);
        const V t403 = t397 + t398;
        io.im(19, t403);
        // complex block of 27
        const V t404 = c[8] * t229;
        const V t405 = c[9] * t228;
        const V t406 = t405 + t404;
        const V t407 = c[8] * t228;
        const V t408 = c[9] * t229;
        const V t409 = t408 - t407;
        const V t410 = c[10] * t349;
        const V t411 = c[11] * t348;
        const V t412 = t411 + t410;
        const V t413 = c[10] * t348;
        const V t414 = c[11] * t349;
        const V t415 = t414 - t413;
        // complex block of 3
        const V t416 = t406 + t412;
        const V t417 = t409 + t415;
        const V t418 = t406 - t412;
        const V t419 = t409 - t415;
        const V t420 = t416 + t108;
        io.re(2, t420);
        const V t421 = t417 + t109;
        io.im(2, t421);
        const V t422 = c[0] * t416;
        const V t423 = t108 - t422;
        const V t424 = c[0] * t417;
        const V t425 = t109 - t424;
        const V t426 = c[1] * t418;
        const V t427 = c[1] * t419;
        const V t428 = t423 + t427;
        io.re(11, t428);
        const V t429 = t425 - t426;
        io.im(11, t429);
        const V t430 = t423 - t427;
        io.re(20, t430);
        const V t431 = t425 + t426;
        io.im(20, t431);
        // complex block of 27
        const V t432 = c[4] * t181;
        const V t433 = c[5] * t180;
        const V t434 = t433 + t432;
        const V t435 = c[4] * t180;
        const V t436 = c[5] * t181;
        const V t437 = t436 - t435;
        const V t438 = c[2] * t301;
        const V t439 = c[3] * t300;
        const V t440 = t439 + t438;
        const V t441 = c[2] * t300;
        const V t442 = c[3] * t301;
        const V t443 = t442 - t441;
        // complex block of 3
        const V t444 = t434 + t440;
        const V t445 = t437 + t443;
        const V t446 = t434 - t440;
        const V t447 = t437 - t443;
        const V t448 = t444 + t60;
        io.re(3, t448);
        const V t449 = t445 + t61;
        io.im(3, t449);
        const V t450 = c[0] * t444;
        const V t451 = t60 - t450;
        const V t452 = c[0] * t445;
        const V t453 = t61 - t452;
        const V t454 = c[1] * t446;
        const V t455 = c[1] * t447;
        const V t456 = t451 + t455;
        io.re(12, t456);
        const V t457 = t453 - t454;
        io.im(12, t457);
        const V t458 = t451 - t455;
        io.re(21, t458);
        const V t459 = t453 + t454;
        io.im(21, t459);
        // complex block of 27
        const V t460 = c[10] * t209;
        const V t461 = c[11] * t208;
        const V t462 = t461 + t460;
        const V t463 = c[10] * t208;
        const V t464 = c[11] * t209;
        const V t465 = t464 - t463;
        const V t466 = c[12] * t329;
        const V t467 = c[13] * t328;
        const V t468 = t466 - t467;
        const V t469 = c[12] * t328;
        const V t470 = c[13] * t329;
        const V t471 = t470 + t469;
        // complex block of 3
        const V t472 = t462 + t468;
        const V t473 = t465 - t471;
        const V t474 = t462 - t468;
        const V t475 = t465 + t471;
        const V t476 = t472 + t88;
        io.re(4, t476);
        const V t477 = t473 + t89;
        io.im(4, t477);
        const V t478 = c[0] * t472;
        const V t479 = t88 - t478;
        const V t480 = c[0] * t473;
        const V t481 = t89 - t480;
        const V t482 = c[1] * t474;
        const V t483 = c[1] * t475;
        const V t484 = t479 + t483;
        io.re(13, t484);
        const V t485 = t481 - t482;
        io.im(13, t485);
        const V t486 = t479 - t483;
        io.re(22, t486);
        const V t487 = t481 + t482;
        io.im(22, t487);
        // complex block of 27
        const V t488 = c[16] * t237;
        const V t489 = c[17] * t236;
        const V t490 = t489 + t488;
        const V t491 = c[16] * t236;
        const V t492 = c[17] * t237;
        const V t493 = t492 - t491;
        const V t494 = c[18] * t357;
        const V t495 = c[19] * t356;
        const V t496 = t494 - t495;
        const V t497 = c[18] * t356;
        const V t498 = c[19] * t357;
        const V t499 = t498 + t497;
        // complex block of 3
        const V t500 = t490 + t496;
        const V t501 = t493 - t499;
        const V t502 = t490 - t496;
        const V t503 = t493 + t499;
        const V t504 = t500 + t116;
        io.re(5, t504);
        const V t505 = t501 + t117;
        io.im(5, t505);
        const V t506 = c[0] * t500;
        const V t507 = t116 - t506;
        const V t508 = c[0] * t501;
        const V t509 = t117 - t508;
        const V t510 = c[1] * t502;
        const V t511 = c[1] * t503;
        const V t512 = t507 + t511;
        io.re(14, t512);
        const V t513 = t509 - t510;
        io.im(14, t513);
        const V t514 = t507 - t511;
        io.re(23, t514);
        const V t515 = t509 + t510;
        io.im(23, t515);
        // complex block of 27
        const V t516 = c[2] * t183;
        const V t517 = c[3] * t182;
        const V t518 = t517 + t516;
        const V t519 = c[2] * t182;
        const V t520 = c[3] * t183;
        const V t521 = t520 - t519;
        const V t522 = c[6] * t303;
        const V t523 = c[7] * t302;
        const V t524 = t522 - t523;
        const V t525 = c[6] * t302;
        const V t526 = c[7] * t303;
        const V t527 = t526 + t525;
        // complex block of 3
        const V t528 = t518 + t524;
        const V t529 = t521 - t527;
        const V t530 = t518 - t524;
        const V t531 = t521 + t527;
        const V t532 = t528 + t62;
        io.re(6, t532);
        const V t533 = t529 + t63;
        io.im(6, t533);
        const V t534 = c[0] * t528;
        const V t535 = t62 - t534;
        const V t536 = c[0] * t529;
        const V t537 = t63 - t536;
        const V t538 = c[1] * t530;
        const V t539 = c[1] * t531;
        const V t540 = t535 + t539;
        io.re(15, t540);
        const V t541 = t537 - t538;
        io.im(15, t541);
        const V t542 = t535 - t539;
        io.re(24, t542);
        const V t543 = t537 + t538;
        io.im(24, t543);
        // complex block of 27
        const V t544 = c[20] * t211;
        const V t545 = c[21] * t210;
        const V t546 = t544 - t545;
        const V t547 = c[20] * t210;
        const V t548 = c[21] * t211;
        const V t549 = t548 + t547;
        const V t550 = c[22] * t331;
        const V t551 = c[23] * t330;
        const V t552 = t551 + t550;
        const V t553 = c[22] * t330;
        const V t554 = c[23] * t331;
        const V t555 = t553 - t554;
        // complex block of 3
        const V t556 = t546 - t552;
        const V t557 = t555 - t549;
        const V t558 = t546 + t552;
        const V t559 = t549 + t555;
        const V t560 = t556 + t90;
        io.re(7, t560);
        const V t561 = t557 + t91;
        io.im(7, t561);
        const V t562 = c[0] * t556;
        const V t563 = t90 - t562;
        const V t564 = c[0] * t557;
        const V t565 = t91 - t564;
        const V t566 = c[1] * t558;
        const V t567 = c[1] * t559;
        const V t568 = t563 - t567;
        io.re(16, t568);
        const V t569 = t565 - t566;
        io.im(16, t569);
        const V t570 = t563 + t567;
        io.re(25, t570);
        const V t571 = t565 + t566;
        io.im(25, t571);
        // complex block of 27
        const V t572 = c[12] * t239;
        const V t573 = c[13] * t238;
        const V t574 = t572 - t573;
        const V t575 = c[12] * t238;
        const V t576 = c[13] * t239;
        const V t577 = t576 + t575;
        const V t578 = c[24] * t359;
        const V t579 = c[25] * t358;
        const V t580 = t579 + t578;
        const V t581 = c[24] * t358;
        const V t582 = c[25] * t359;
        const V t583 = t581 - t582;
        // complex block of 3
        const V t584 = t574 - t580;
        const V t585 = t583 - t577;
        const V t586 = t574 + t580;
        const V t587 = t577 + t583;
        const V t588 = t584 + t118;
        io.re(8, t588);
        const V t589 = t585 + t119;
        io.im(8, t589);
        const V t590 = c[0] * t584;
        const V t591 = t118 - t590;
        const V t592 = c[0] * t585;
        const V t593 = t119 - t592;
        const V t594 = c[1] * t586;
        const V t595 = c[1] * t587;
        const V t596 = t591 - t595;
        io.re(17, t596);
        const V t597 = t593 - t594;
        io.im(17, t597);
        const V t598 = t591 + t595;
        io.re(26, t598);
        const V t599 = t593 + t594;
        io.im(26, t599);
    }
};

}  // namespace zulg
