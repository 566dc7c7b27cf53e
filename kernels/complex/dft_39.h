// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 39.
// Complex DFT of 39 points, prime-factor, order 3, 13.
// 342 additions, 342 subtractions, 268 multiplications (346 with `scale`); 18 constants; 82 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<39> {
    static constexpr int steps = 1030;  // with `scale`
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5279915321544383,  // c[2]: -P[1] of 13
        0.2869425954512852,  // c[3]: Q[1] of 13
        0.5751407294740031,  // c[4]: P[3] of 13
        0.1741386011521359,  // c[5]: Q[3] of 13
        0.280148395734785,  // c[6]: P[5] of 13
        0.5316276774946329,  // c[7]: Q[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.29376443202296976,  // c[9]: Q[2] of 13
        0.5242266395265821,  // c[10]: -P[2] of 13
        0.42218506973345193,  // c[11]: -Q[4] of 13
        0.42763404682657274,  // c[12]: P[4] of 13
        0.3004626062886658,  // c[13]: beta of 13
        0.37034194807495624,  // c[14]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[15]: sin 2 pi 1/3 times -Q[4] of 13
        0.25440746086019866,  // c[16]: sin 2 pi 1/3 times Q[2] of 13
        0.45399358717056765,  // c[17]: sin 2 pi 1/3 times -P[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3
        const V x13r = io.re(13);
        const V x26r = io.re(26);
        const V t0 = x13r + x26r;
        const V x13i = io.im(13);
        const V x26i = io.im(26);
        const V t1 = x13i + x26i;
        const V t2 = x13r - x26r;
        const V t3 = x13i - x26i;
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
        const V x16r = io.re(16);
        const V x29r = io.re(29);
        const V t16 = x16r + x29r;
        const V x16i = io.im(16);
        const V x29i = io.im(29);
        const V t17 = x16i + x29i;
        const V t18 = x16r - x29r;
        const V t19 = x16i - x29i;
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
        const V x19r = io.re(19);
        const V x32r = io.re(32);
        const V t32 = x19r + x32r;
        const V x19i = io.im(19);
        const V x32i = io.im(32);
        const V t33 = x19i + x32i;
        const V t34 = x19r - x32r;
        const V t35 = x19i - x32i;
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
        const V x22r = io.re(22);
        const V x35r = io.re(35);
        const V t48 = x22r + x35r;
        const V x22i = io.im(22);
        const V x35i = io.im(35);
        const V t49 = x22i + x35i;
        const V t50 = x22r - x35r;
        const V t51 = x22i - x35i;
        const V x9r = io.re(9);
        const V t52 = t48 + x9r;
        const V x9i = io.im(9);
        const V t53 = t49 + x9i;
        const V t54 = c[0] * t48;
        const V t55 = x9r - t54;
        const V t56 = c[0] * t49;
        const V t57 = x9i - t56;
        const V t58 = c[1] * t50;
        const V t59 = c[1] * t51;
        const V t60 = t55 + t59;
        const V t61 = t57 - t58;
        const V t62 = t55 - t59;
        const V t63 = t57 + t58;
        // complex block of 3
        const V x25r = io.re(25);
        const V x38r = io.re(38);
        const V t64 = x25r + x38r;
        const V x25i = io.im(25);
        const V x38i = io.im(38);
        const V t65 = x25i + x38i;
        const V t66 = x25r - x38r;
        const V t67 = x25i - x38i;
        const V x12r = io.re(12);
        const V t68 = t64 + x12r;
        const V x12i = io.im(12);
        const V t69 = t65 + x12i;
        const V t70 = c[0] * t64;
        const V t71 = x12r - t70;
        const V t72 = c[0] * t65;
        const V t73 = x12i - t72;
        const V t74 = c[1] * t66;
        const V t75 = c[1] * t67;
        const V t76 = t71 + t75;
        const V t77 = t73 - t74;
        const V t78 = t71 - t75;
        const V t79 = t73 + t74;
        // complex block of 3
        const V x28r = io.re(28);
        const V x2r = io.re(2);
        const V t80 = x28r + x2r;
        const V x28i = io.im(28);
        const V x2i = io.im(2);
        const V t81 = x28i + x2i;
        const V t82 = x28r - x2r;
        const V t83 = x28i - x2i;
        const V x15r = io.re(15);
        const V t84 = t80 + x15r;
        const V x15i = io.im(15);
        const V t85 = t81 + x15i;
        const V t86 = c[0] * t80;
        const V t87 = x15r - t86;
        const V t88 = c[0] * t81;
        const V t89 = x15i - t88;
        const V t90 = c[1] * t82;
        const V t91 = c[1] * t83;
        const V t92 = t87 + t91;
        const V t93 = t89 - t90;
        const V t94 = t87 - t91;
        const V t95 = t89 + t90;
        // complex block of 3
        const V x31r = io.re(31);
        const V x5r = io.re(5);
        const V t96 = x31r + x5r;
        const V x31i = io.im(31);
        const V x5i = io.im(5);
        const V t97 = x31i + x5i;
        const V t98 = x31r - x5r;
        const V t99 = x31i - x5i;
        const V x18r = io.re(18);
        const V t100 = t96 + x18r;
        const V x18i = io.im(18);
        const V t101 = t97 + x18i;
        const V t102 = c[0] * t96;
        const V t103 = x18r - t102;
        const V t104 = c[0] * t97;
        const V t105 = x18i - t104;
        const V t106 = c[1] * t98;
        const V t107 = c[1] * t99;
        const V t108 = t103 + t107;
        const V t109 = t105 - t106;
        const V t110 = t103 - t107;
        const V t111 = t105 + t106;
        // complex block of 3
        const V x34r = io.re(34);
        const V x8r = io.re(8);
        const V t112 = x34r + x8r;
        const V x34i = io.im(34);
        const V x8i = io.im(8);
        const V t113 = x34i + x8i;
        const V t114 = x34r - x8r;
        const V t115 = x34i - x8i;
        const V x21r = io.re(21);
        const V t116 = t112 + x21r;
        const V x21i = io.im(21);
        const V t117 = t113 + x21i;
        const V t118 = c[0] * t112;
        const V t119 = x21r - t118;
        const V t120 = c[0] * t113;
        const V t121 = x21i - t120;
        const V t122 = c[1] * t114;
        const V t123 = c[1] * t115;
        const V t124 = t119 + t123;
        const V t125 = t121 - t122;
        const V t126 = t119 - t123;
        const V t127 = t121 + t122;
        // complex block of 3
        const V x37r = io.re(37);
        const V x11r = io.re(11);
        const V t128 = x37r + x11r;
        const V x37i = io.im(37);
        const V x11i = io.im(11);
        const V t129 = x37i + x11i;
        const V t130 = x37r - x11r;
        const V t131 = x37i - x11i;
        const V x24r = io.re(24);
        const V t132 = t128 + x24r;
        const V x24i = io.im(24);
        const V t133 = t129 + x24i;
        const V t134 = c[0] * t128;
        const V t135 = x24r - t134;
        const V t136 = c[0] * t129;
        const V t137 = x24i - t136;
        const V t138 = c[1] * t130;
        const V t139 = c[1] * t131;
        const V t140 = t135 + t139;
        const V t141 = t137 - t138;
        const V t142 = t135 - t139;
        const V t143 = t137 + t138;
        // complex block of 3
        const V x1r = io.re(1);
        const V x14r = io.re(14);
        const V t144 = x1r + x14r;
        const V x1i = io.im(1);
        const V x14i = io.im(14);
        const V t145 = x1i + x14i;
        const V t146 = x1r - x14r;
        const V t147 = x1i - x14i;
        const V x27r = io.re(27);
        const V t148 = t144 + x27r;
        const V x27i = io.im(27);
        const V t149 = t145 + x27i;
        const V t150 = c[0] * t144;
        const V t151 = x27r - t150;
        const V t152 = c[0] * t145;
        const V t153 = x27i - t152;
        const V t154 = c[1] * t146;
        const V t155 = c[1] * t147;
        const V t156 = t151 + t155;
        const V t157 = t153 - t154;
        const V t158 = t151 - t155;
        const V t159 = t153 + t154;
        // complex block of 3
        const V x4r = io.re(4);
        const V x17r = io.re(17);
        const V t160 = x4r + x17r;
        const V x4i = io.im(4);
        const V x17i = io.im(17);
        const V t161 = x4i + x17i;
        const V t162 = x4r - x17r;
        const V t163 = x4i - x17i;
        const V x30r = io.re(30);
        const V t164 = t160 + x30r;
        const V x30i = io.im(30);
        const V t165 = t161 + x30i;
        const V t166 = c[0] * t160;
        const V t167 = x30r - t166;
        const V t168 = c[0] * t161;
        const V t169 = x30i - t168;
        const V t170 = c[1] * t162;
        const V t171 = c[1] * t163;
        const V t172 = t167 + t171;
        const V t173 = t169 - t170;
        const V t174 = t167 - t171;
        const V t175 = t169 + t170;
        // complex block of 3
        const V x7r = io.re(7);
        const V x20r = io.re(20);
        const V t176 = x7r + x20r;
        const V x7i = io.im(7);
        const V x20i = io.im(20);
        const V t177 = x7i + x20i;
        const V t178 = x7r - x20r;
        const V t179 = x7i - x20i;
        const V x33r = io.re(33);
        const V t180 = t176 + x33r;
        const V x33i = io.im(33);
        const V t181 = t177 + x33i;
        const V t182 = c[0] * t176;
        const V t183 = x33r - t182;
        const V t184 = c[0] * t177;
        const V t185 = x33i - t184;
        const V t186 = c[1] * t178;
        const V t187 = c[1] * t179;
        const V t188 = t183 + t187;
        const V t189 = t185 - t186;
        const V t190 = t183 - t187;
        const V t191 = t185 + t186;
        // complex block of 3
        const V x10r = io.re(10);
        const V x23r = io.re(23);
        const V t192 = x10r + x23r;
        const V x10i = io.im(10);
        const V x23i = io.im(23);
        const V t193 = x10i + x23i;
        const V t194 = x10r - x23r;
        const V t195 = x10i - x23i;
        const V x36r = io.re(36);
        const V t196 = t192 + x36r;
        const V x36i = io.im(36);
        const V t197 = t193 + x36i;
        const V t198 = c[0] * t192;
        const V t199 = x36r - t198;
        const V t200 = c[0] * t193;
        const V t201 = x36i - t200;
        const V t202 = c[1] * t194;
        const V t203 = c[1] * t195;
        const V t204 = t199 + t203;
        const V t205 = t201 - t202;
        const V t206 = t199 - t203;
        const V t207 = t201 + t202;
        // real block of 2
        const V t208 = t20 + t196;
        const V t209 = t20 - t196;
        // real block of 2
        const V t210 = t132 + t84;
        const V t211 = t132 - t84;
        // real block of 2
        const V t212 = t208 + t210;
        const V t213 = t208 - t210;
        // real block of 2
        const V t214 = t52 + t164;
        const V t215 = t52 - t164;
        // real block of 2
        const V t216 = t180 + t36;
        const V t217 = t180 - t36;
        // real block of 2
        const V t218 = t214 + t216;
        const V t219 = t214 - t216;
        // real block of 2
        const V t220 = t148 + t68;
        const V t221 = t148 - t68;
        // real block of 2
        const V t222 = t116 + t100;
        const V t223 = t116 - t100;
        // real block of 2
        const V t224 = t220 + t222;
        const V t225 = t220 - t222;
        // real block of 3
        const V t226 = t218 + t224;
        const V t227 = t218 - t224;
        const V t228 = t226 + t212;
        const V t229 = c[0] * t226;
        const V t230 = t212 - t229;
        const V t231 = c[1] * t227;
        // complex block of 3
        const V t232 = t215 + t221;
        const V t233 = t217 + t223;
        const V t234 = t215 - t221;
        const V t235 = t217 - t223;
        const V t236 = t232 + t209;
        const V t237 = t233 + t211;
        const V t238 = c[0] * t232;
        const V t239 = t209 - t238;
        const V t240 = c[0] * t233;
        const V t241 = t211 - t240;
        const V t242 = c[1] * t234;
        const V t243 = c[1] * t235;
        const V t244 = t239 + t243;
        const V t245 = t241 - t242;
        const V t246 = t239 - t243;
        const V t247 = t241 + t242;
        // real block of 3
        const V t248 = t219 + t225;
        const V t249 = t219 - t225;
        const V t250 = t248 + t213;
        const V t251 = c[0] * t248;
        const V t252 = t213 - t251;
        const V t253 = c[1] * t249;
        // real block of 2
        const V t254 = t21 + t197;
        const V t255 = t21 - t197;
        // real block of 2
        const V t256 = t133 + t85;
        const V t257 = t133 - t85;
        // real block of 2
        const V t258 = t254 + t256;
        const V t259 = t254 - t256;
        // real block of 2
        const V t260 = t53 + t165;
        const V t261 = t53 - t165;
        // real block of 2
        const V t262 = t181 + t37;
        const V t263 = t181 - t37;
        // real block of 2
        const V t264 = t260 + t262;
        const V t265 = t260 - t262;
        // real block of 2
        const V t266 = t149 + t69;
        const V t267 = t149 - t69;
        // real block of 2
        const V t268 = t117 + t101;
        const V t269 = t117 - t101;
        // real block of 2
        const V t270 = t266 + t268;
        const V t271 = t266 - t268;
        // real block of 3
        const V t272 = t264 + t270;
        const V t273 = t264 - t270;
        const V t274 = t272 + t258;
        const V t275 = c[0] * t272;
        const V t276 = t258 - t275;
        const V t277 = c[1] * t273;
        // complex block of 3
        const V t278 = t261 + t267;
        const V t279 = t263 + t269;
        const V t280 = t261 - t267;
        const V t281 = t263 - t269;
        const V t282 = t278 + t255;
        const V t283 = t279 + t257;
        const V t284 = c[0] * t278;
        const V t285 = t255 - t284;
        const V t286 = c[0] * t279;
        const V t287 = t257 - t286;
        const V t288 = c[1] * t280;
        const V t289 = c[1] * t281;
        const V t290 = t285 + t289;
        const V t291 = t287 - t288;
        const V t292 = t285 - t289;
        const V t293 = t287 + t288;
        // real block of 3
        const V t294 = t265 + t271;
        const V t295 = t265 - t271;
        const V t296 = t294 + t259;
        const V t297 = c[0] * t294;
        const V t298 = t259 - t297;
        const V t299 = c[1] * t295;
        // complex block of 13, multiplier 3
        const V t300 = t4 + t228;
        io.re(0, t300);
        const V t301 = t5 + t274;
        io.im(0, t301);
        const V t302 = c[8] * t228;
        const V t303 = t4 - t302;
        const V t304 = c[8] * t274;
        const V t305 = t5 - t304;
        const V t306 = c[2] * t293;
        const V t307 = c[3] * t292;
        const V t308 = t307 - t306;
        const V t309 = c[2] * t292;
        const V t310 = c[3] * t293;
        const V t311 = t310 + t309;
        const V t312 = c[2] * t247;
        const V t313 = c[3] * t246;
        const V t314 = t312 - t313;
        const V t315 = c[2] * t246;
        const V t316 = c[3] * t247;
        const V t317 = t316 + t315;
        const V t318 = c[9] * t253;
        const V t319 = c[10] * t252;
        const V t320 = t319 + t318;
        const V t321 = c[9] * t299;
        const V t322 = c[10] * t298;
        const V t323 = t322 + t321;
        const V t324 = c[4] * t283;
        const V t325 = c[5] * t282;
        const V t326 = t325 - t324;
        const V t327 = c[4] * t282;
        const V t328 = c[5] * t283;
        const V t329 = t328 + t327;
        const V t330 = c[4] * t237;
        const V t331 = c[5] * t236;
        const V t332 = t330 - t331;
        const V t333 = c[4] * t236;
        const V t334 = c[5] * t237;
        const V t335 = t334 + t333;
        const V t336 = c[11] * t231;
        const V t337 = c[12] * t230;
        const V t338 = t337 - t336;
        const V t339 = c[11] * t277;
        const V t340 = c[12] * t276;
        const V t341 = t340 - t339;
        const V t342 = c[6] * t291;
        const V t343 = c[7] * t290;
        const V t344 = t343 + t342;
        const V t345 = c[6] * t290;
        const V t346 = c[7] * t291;
        const V t347 = t345 - t346;
        const V t348 = c[6] * t245;
        const V t349 = c[7] * t244;
        const V t350 = t349 + t348;
        const V t351 = c[6] * t244;
        const V t352 = c[7] * t245;
        const V t353 = t352 - t351;
        const V t354 = c[13] * t250;
        const V t355 = c[13] * t296;
        // spectrum block of 3
        const V t356 = t338 + t303;
        const V t357 = c[0] * t338;
        const V t358 = t303 - t357;
        const V t359 = c[14] * t231;
        const V t360 = c[15] * t230;
        const V t361 = t359 + t360;
        const V t362 = t358 + t361;
        const V t363 = t358 - t361;
        // complex block of 3
        const V t364 = t311 - t347;
        const V t365 = t344 + t308;
        const V t366 = t347 + t311;
        const V t367 = t344 - t308;
        const V t368 = t364 + t329;
        const V t369 = t365 + t326;
        const V t370 = c[0] * t364;
        const V t371 = t329 - t370;
        const V t372 = c[0] * t365;
        const V t373 = t326 - t372;
        const V t374 = c[1] * t366;
        const V t375 = c[1] * t367;
        const V t376 = t371 + t375;
        const V t377 = t373 + t374;
        const V t378 = t371 - t375;
        const V t379 = t373 - t374;
        // spectrum block of 3
        const V t380 = t354 - t320;
        const V t381 = c[0] * t320;
        const V t382 = t381 + t354;
        const V t383 = c[16] * t252;
        const V t384 = c[17] * t253;
        const V t385 = t383 - t384;
        const V t386 = t382 + t385;
        const V t387 = t382 - t385;
        // spectrum block of 2
        const V t388 = t356 + t380;
        const V t389 = t356 - t380;
        // spectrum block of 2
        const V t390 = t388 + t369;
        io.re(3, t390);
        const V t391 = t388 - t369;
        io.re(36, t391);
        // spectrum block of 2
        const V t392 = t389 + t368;
        io.re(15, t392);
        const V t393 = t389 - t368;
        io.re(24, t393);
        // spectrum block of 2
        const V t394 = t362 + t386;
        const V t395 = t362 - t386;
        // spectrum block of 2
        const V t396 = t394 + t377;
        io.re(27, t396);
        const V t397 = t394 - t377;
        io.re(12, t397);
        // spectrum block of 2
        const V t398 = t395 + t376;
        io.re(18, t398);
        const V t399 = t395 - t376;
        io.re(21, t399);
        // spectrum block of 2
        const V t400 = t363 + t387;
        const V t401 = t363 - t387;
        // spectrum block of 2
        const V t402 = t400 + t379;
        io.re(9, t402);
        const V t403 = t400 - t379;
        io.re(30, t403);
        // spectrum block of 2
        const V t404 = t401 + t378;
        io.re(6, t404);
        const V t405 = t401 - t378;
        io.re(33, t405);
        // spectrum block of 3
        const V t406 = t341 + t305;
        const V t407 = c[0] * t341;
        const V t408 = t305 - t407;
        const V t409 = c[14] * t277;
        const V t410 = c[15] * t276;
        const V t411 = t409 + t410;
        const V t412 = t408 + t411;
        const V t413 = t408 - t411;
        // complex block of 3
        const V t414 = t353 + t317;
        const V t415 = t314 - t350;
        const V t416 = t317 - t353;
        const V t417 = t350 + t314;
        const V t418 = t414 + t335;
        const V t419 = t415 + t332;
        const V t420 = c[0] * t414;
        const V t421 = t420 - t335;
        const V t422 = c[0] * t415;
        const V t423 = t332 - t422;
        const V t424 = c[1] * t416;
        const V t425 = c[1] * t417;
        const V t426 = t421 - t425;
        const V t427 = t423 - t424;
        const V t428 = t421 + t425;
        const V t429 = t423 + t424;
        // spectrum block of 3
        const V t430 = t355 - t323;
        const V t431 = c[0] * t323;
        const V t432 = t431 + t355;
        const V t433 = c[16] * t298;
        const V t434 = c[17] * t299;
        const V t435 = t433 - t434;
        const V t436 = t432 + t435;
        const V t437 = t432 - t435;
        // spectrum block of 2
        const V t438 = t406 + t430;
        const V t439 = t406 - t430;
        // spectrum block of 2
        const V t440 = t438 + t419;
        io.im(3, t440);
        const V t441 = t438 - t419;
        io.im(36, t441);
        // spectrum block of 2
        const V t442 = t439 - t418;
        io.im(15, t442);
        const V t443 = t439 + t418;
        io.im(24, t443);
        // spectrum block of 2
        const V t444 = t412 + t436;
        const V t445 = t412 - t436;
        // spectrum block of 2
        const V t446 = t444 + t427;
        io.im(27, t446);
        const V t447 = t444 - t427;
        io.im(12, t447);
        // spectrum block of 2
        const V t448 = t445 + t426;
        io.im(18, t448);
        const V t449 = t445 - t426;
        io.im(21, t449);
        // spectrum block of 2
        const V t450 = t413 + t437;
        const V t451 = t413 - t437;
        // spectrum block of 2
        const V t452 = t450 + t429;
        io.im(9, t452);
        const V t453 = t450 - t429;
        io.im(30, t453);
        // spectrum block of 2
        const V t454 = t451 + t428;
        io.im(6, t454);
        const V t455 = t451 - t428;
        io.im(33, t455);
        // real block of 2
        const V t456 = t28 + t204;
        const V t457 = t28 - t204;
        // real block of 2
        const V t458 = t140 + t92;
        const V t459 = t140 - t92;
        // real block of 2
        const V t460 = t456 + t458;
        const V t461 = t456 - t458;
        // real block of 2
        const V t462 = t60 + t172;
        const V t463 = t60 - t172;
        // real block of 2
        const V t464 = t188 + t44;
        const V t465 = t188 - t44;
        // real block of 2
        const V t466 = t462 + t464;
        const V t467 = t462 - t464;
        // real block of 2
        const V t468 = t156 + t76;
        const V t469 = t156 - t76;
        // real block of 2
        const V t470 = t124 + t108;
        const V t471 = t124 - t108;
        // real block of 2
        const V t472 = t468 + t470;
        const V t473 = t468 - t470;
        // real block of 3
        const V t474 = t466 + t472;
        const V t475 = t466 - t472;
        const V t476 = t474 + t460;
        const V t477 = c[0] * t474;
        const V t478 = t460 - t477;
        const V t479 = c[1] * t475;
        // complex block of 3
        const V t480 = t463 + t469;
        const V t481 = t465 + t471;
        const V t482 = t463 - t469;
        const V t483 = t465 - t471;
        const V t484 = t480 + t457;
        const V t485 = t481 + t459;
        const V t486 = c[0] * t480;
        const V t487 = t457 - t486;
        const V t488 = c[0] * t481;
        const V t489 = t459 - t488;
        const V t490 = c[1] * t482;
        const V t491 = c[1] * t483;
        const V t492 = t487 + t491;
        const V t493 = t489 - t490;
        const V t494 = t487 - t491;
        const V t495 = t489 + t490;
        // real block of 3
        const V t496 = t467 + t473;
        const V t497 = t467 - t473;
        const V t498 = t496 + t461;
        const V t499 = c[0] * t496;
        const V t500 = t461 - t499;
        const V t501 = c[1] * t497;
        // real block of 2
        const V t502 = t29 + t205;
        const V t503 = t29 - t205;
        // real block of 2
        const V t504 = t141 + t93;
        const V t505 = t141 - t93;
        // real block of 2
        const V t506 = t502 + t504;
        const V t507 = t502 - t504;
        // real block of 2
        const V t508 = t61 + t173;
        const V t509 = t61 - t173;
        // real block of 2
        const V t510 = t189 + t45;
        const V t511 = t189 - t45;
        // real block of 2
        const V t512 = t508 + t510;
        const V t513 = t508 - t510;
        // real block of 2
        const V t514 = t157 + t77;
        const V t515 = t157 - t77;
        // real block of 2
        const V t516 = t125 + t109;
        const V t517 = t125 - t109;
        // real block of 2
        const V t518 = t514 + t516;
        const V t519 = t514 - t516;
        // real block of 3
        const V t520 = t512 + t518;
        const V t521 = t512 - t518;
        const V t522 = t520 + t506;
        const V t523 = c[0] * t520;
        const V t524 = t506 - t523;
        const V t525 = c[1] * t521;
        // complex block of 3
        const V t526 = t509 + t515;
        const V t527 = t511 + t517;
        const V t528 = t509 - t515;
        const V t529 = t511 - t517;
        const V t530 = t526 + t503;
        const V t531 = t527 + t505;
        const V t532 = c[0] * t526;
        const V t533 = t503 - t532;
        const V t534 = c[0] * t527;
        const V t535 = t505 - t534;
        const V t536 = c[1] * t528;
        const V t537 = c[1] * t529;
        const V t538 = t533 + t537;
        const V t539 = t535 - t536;
        const V t540 = t533 - t537;
        const V t541 = t535 + t536;
        // real block of 3
        const V t542 = t513 + t519;
        const V t543 = t513 - t519;
        const V t544 = t542 + t507;
        const V t545 = c[0] * t542;
        const V t546 = t507 - t545;
        const V t547 = c[1] * t543;
        // complex block of 13, multiplier 3
        const V t548 = t12 + t476;
        io.re(13, t548);
        const V t549 = t13 + t522;
        io.im(13, t549);
        const V t550 = c[8] * t476;
        const V t551 = t12 - t550;
        const V t552 = c[8] * t522;
        const V t553 = t13 - t552;
        const V t554 = c[2] * t541;
        const V t555 = c[3] * t540;
        const V t556 = t555 - t554;
        const V t557 = c[2] * t540;
        const V t558 = c[3] * t541;
        const V t559 = t558 + t557;
        const V t560 = c[2] * t495;
        const V t561 = c[3] * t494;
        const V t562 = t560 - t561;
        const V t563 = c[2] * t494;
        const V t564 = c[3] * t495;
        const V t565 = t564 + t563;
        const V t566 = c[9] * t501;
        const V t567 = c[10] * t500;
        const V t568 = t567 + t566;
        const V t569 = c[9] * t547;
        const V t570 = c[10] * t546;
        const V t571 = t570 + t569;
        const V t572 = c[4] * t531;
        const V t573 = c[5] * t530;
        const V t574 = t573 - t572;
        const V t575 = c[4] * t530;
        const V t576 = c[5] * t531;
        const V t577 = t576 + t575;
        const V t578 = c[4] * t485;
        const V t579 = c[5] * t484;
        const V t580 = t578 - t579;
        const V t581 = c[4] * t484;
        const V t582 = c[5] * t485;
        const V t583 = t582 + t581;
        const V t584 = c[11] * t479;
        const V t585 = c[12] * t478;
        const V t586 = t585 - t584;
        const V t587 = c[11] * t525;
        const V t588 = c[12] * t524;
        const V t589 = t588 - t587;
        const V t590 = c[6] * t539;
        const V t591 = c[7] * t538;
        const V t592 = t591 + t590;
        const V t593 = c[6] * t538;
        const V t594 = c[7] * t539;
        const V t595 = t593 - t594;
        const V t596 = c[6] * t493;
        const V t597 = c[7] * t492;
        const V t598 = t597 + t596;
        const V t599 = c[6] * t492;
        const V t600 = c[7] * t493;
        const V t601 = t600 - t599;
        const V t602 = c[13] * t498;
        const V t603 = c[13] * t544;
        // spectrum block of 3
        const V t604 = t586 + t551;
        const V t605 = c[0] * t586;
        const V t606 = t551 - t605;
        const V t607 = c[14] * t479;
        const V t608 = c[15] * t478;
        const V t609 = t607 + t608;
        const V t610 = t606 + t609;
        const V t611 = t606 - t609;
        // complex block of 3
        const V t612 = t559 - t595;
        const V t613 = t592 + t556;
        const V t614 = t595 + t559;
        const V t615 = t592 - t556;
        const V t616 = t612 + t577;
        const V t617 = t613 + t574;
        const V t618 = c[0] * t612;
        const V t619 = t577 - t618;
        const V t620 = c[0] * t613;
        const V t621 = t574 - t620;
        const V t622 = c[1] * t614;
        const V t623 = c[1] * t615;
        const V t624 = t619 + t623;
        const V t625 = t621 + t622;
        const V t626 = t619 - t623;
        const V t627 = t621 - t622;
        // spectrum block of 3
        const V t628 = t602 - t568;
        const V t629 = c[0] * t568;
        const V t630 = t629 + t602;
        const V t631 = c[16] * t500;
        const V t632 = c[17] * t501;
        const V t633 = t631 - t632;
        const V t634 = t630 + t633;
        const V t635 = t630 - t633;
        // spectrum block of 2
        const V t636 = t604 + t628;
        const V t637 = t604 - t628;
        // spectrum block of 2
        const V t638 = t636 + t617;
        io.re(16, t638);
        const V t639 = t636 - t617;
        io.re(10, t639);
        // spectrum block of 2
        const V t640 = t637 + t616;
        io.re(28, t640);
        const V t641 = t637 - t616;
        io.re(37, t641);
        // spectrum block of 2
        const V t642 = t610 + t634;
        const V t643 = t610 - t634;
        // spectrum block of 2
        const V t644 = t642 + t625;
        io.re(1, t644);
        const V t645 = t642 - t625;
        io.re(25, t645);
        // spectrum block of 2
        const V t646 = t643 + t624;
        io.re(31, t646);
        const V t647 = t643 - t624;
        io.re(34, t647);
        // spectrum block of 2
        const V t648 = t611 + t635;
        const V t649 = t611 - t635;
        // spectrum block of 2
        const V t650 = t648 + t627;
        io.re(22, t650);
        const V t651 = t648 - t627;
        io.re(4, t651);
        // spectrum block of 2
        const V t652 = t649 + t626;
        io.re(19, t652);
        const V t653 = t649 - t626;
        io.re(7, t653);
        // spectrum block of 3
        const V t654 = t589 + t553;
        const V t655 = c[0] * t589;
        const V t656 = t553 - t655;
        const V t657 = c[14] * t525;
        const V t658 = c[15] * t524;
        const V t659 = t657 + t658;
        const V t660 = t656 + t659;
        const V t661 = t656 - t659;
        // complex block of 3
        const V t662 = t601 + t565;
        const V t663 = t562 - t598;
        const V t664 = t565 - t601;
        const V t665 = t598 + t562;
        const V t666 = t662 + t583;
        const V t667 = t663 + t580;
        const V t668 = c[0] * t662;
        const V t669 = t668 - t583;
        const V t670 = c[0] * t663;
        const V t671 = t580 - t670;
        const V t672 = c[1] * t664;
        const V t673 = c[1] * t665;
        const V t674 = t669 - t673;
        const V t675 = t671 - t672;
        const V t676 = t669 + t673;
        const V t677 = t671 + t672;
        // spectrum block of 3
        const V t678 = t603 - t571;
        const V t679 = c[0] * t571;
        const V t680 = t679 + t603;
        const V t681 = c[16] * t546;
        const V t682 = c[17] * t547;
        const V t683 = t681 - t682;
        const V t684 = t680 + t683;
        const V t685 = t680 - t683;
        // spectrum block of 2
        const V t686 = t654 + t678;
        const V t687 = t654 - t678;
        // spectrum block of 2
        const V t688 = t686 + t667;
        io.im(16, t688);
        const V t689 = t686 - t667;
        io.im(10, t689);
        // spectrum block of 2
        const V t690 = t687 - t666;
        io.im(28, t690);
        const V t691 = t687 + t666;
        io.im(37, t691);
        // spectrum block of 2
        const V t692 = t660 + t684;
        const V t693 = t660 - t684;
        // spectrum block of 2
        const V t694 = t692 + t675;
        io.im(1, t694);
        const V t695 = t692 - t675;
        io.im(25, t695);
        // spectrum block of 2
        const V t696 = t693 + t674;
        io.im(31, t696);
        const V t697 = t693 - t674;
        io.im(34, t697);
        // spectrum block of 2
        const V t698 = t661 + t685;
        const V t699 = t661 - t685;
        // spectrum block of 2
        const V t700 = t698 + t677;
        io.im(22, t700);
        const V t701 = t698 - t677;
        io.im(4, t701);
        // spectrum block of 2
        const V t702 = t699 + t676;
        io.im(19, t702);
        const V t703 = t699 - t676;
        io.im(7, t703);
        // real block of 2
        const V t704 = t30 + t206;
        const V t705 = t30 - t206;
        // real block of 2
        const V t706 = t142 + t94;
        const V t707 = t142 - t94;
        // real block of 2
        const V t708 = t704 + t706;
        const V t709 = t704 - t706;
        // real block of 2
        const V t710 = t62 + t174;
        const V t711 = t62 - t174;
        // real block of 2
        const V t712 = t190 + t46;
        const V t713 = t190 - t46;
        // real block of 2
        const V t714 = t710 + t712;
        const V t715 = t710 - t712;
        // real block of 2
        const V t716 = t158 + t78;
        const V t717 = t158 - t78;
        // real block of 2
        const V t718 = t126 + t110;
        const V t719 = t126 - t110;
        // real block of 2
        const V t720 = t716 + t718;
        const V t721 = t716 - t718;
        // real block of 3
        const V t722 = t714 + t720;
        const V t723 = t714 - t720;
        const V t724 = t722 + t708;
        const V t725 = c[0] * t722;
        const V t726 = t708 - t725;
        const V t727 = c[1] * t723;
        // complex block of 3
        const V t728 = t711 + t717;
        const V t729 = t713 + t719;
        const V t730 = t711 - t717;
        const V t731 = t713 - t719;
        const V t732 = t728 + t705;
        const V t733 = t729 + t707;
        const V t734 = c[0] * t728;
        const V t735 = t705 - t734;
        const V t736 = c[0] * t729;
        const V t737 = t707 - t736;
        const V t738 = c[1] * t730;
        const V t739 = c[1] * t731;
        const V t740 = t735 + t739;
        const V t741 = t737 - t738;
        const V t742 = t735 - t739;
        const V t743 = t737 + t738;
        // real block of 3
        const V t744 = t715 + t721;
        const V t745 = t715 - t721;
        const V t746 = t744 + t709;
        const V t747 = c[0] * t744;
        const V t748 = t709 - t747;
        const V t749 = c[1] * t745;
        // real block of 2
        const V t750 = t31 + t207;
        const V t751 = t31 - t207;
        // real block of 2
        const V t752 = t143 + t95;
        const V t753 = t143 - t95;
        // real block of 2
        const V t754 = t750 + t752;
        const V t755 = t750 - t752;
        // real block of 2
        const V t756 = t63 + t175;
        const V t757 = t63 - t175;
        // real block of 2
        const V t758 = t191 + t47;
        const V t759 = t191 - t47;
        // real block of 2
        const V t760 = t756 + t758;
        const V t761 = t756 - t758;
        // real block of 2
        const V t762 = t159 + t79;
        const V t763 = t159 - t79;
        // real block of 2
        const V t764 = t127 + t111;
        const V t765 = t127 - t111;
        // real block of 2
        const V t766 = t762 + t764;
        const V t767 = t762 - t764;
        // real block of 3
        const V t768 = t760 + t766;
        const V t769 = t760 - t766;
        const V t770 = t768 + t754;
        const V t771 = c[0] * t768;
        const V t772 = t754 - t771;
        const V t773 = c[1] * t769;
        // complex block of 3
        const V t774 = t757 + t763;
        const V t775 = t759 + t765;
        const V t776 = t757 - t763;
        const V t777 = t759 - t765;
        const V t778 = t774 + t751;
        const V t779 = t775 + t753;
        const V t780 = c[0] * t774;
        const V t781 = t751 - t780;
        const V t782 = c[0] * t775;
        const V t783 = t753 - t782;
        const V t784 = c[1] * t776;
        const V t785 = c[1] * t777;
        const V t786 = t781 + t785;
        const V t787 = t783 - t784;
        const V t788 = t781 - t785;
        const V t789 = t783 + t784;
        // real block of 3
        const V t790 = t761 + t767;
        const V t791 = t761 - t767;
        const V t792 = t790 + t755;
        const V t793 = c[0] * t790;
        const V t794 = t755 - t793;
        const V t795 = c[1] * t791;
        // complex block of 13, multiplier 3
        const V t796 = t14 + t724;
        io.re(26, t796);
        const V t797 = t15 + t770;
        io.im(26, t797);
        const V t798 = c[8] * t724;
        const V t799 = t14 - t798;
        const V t800 = c[8] * t770;
        const V t801 = t15 - t800;
        const V t802 = c[2] * t789;
        const V t803 = c[3] * t788;
        const V t804 = t803 - t802;
        const V t805 = c[2] * t788;
        const V t806 = c[3] * t789;
        const V t807 = t806 + t805;
        const V t808 = c[2] * t743;
        const V t809 = c[3] * t742;
        const V t810 = t808 - t809;
        const V t811 = c[2] * t742;
        const V t812 = c[3] * t743;
        const V t813 = t812 + t811;
        const V t814 = c[9] * t749;
        const V t815 = c[10] * t748;
        const V t816 = t815 + t814;
        const V t817 = c[9] * t795;
        const V t818 = c[10] * t794;
        const V t819 = t818 + t817;
        const V t820 = c[4] * t779;
        const V t821 = c[5] * t778;
        const V t822 = t821 - t820;
        const V t823 = c[4] * t778;
        const V t824 = c[5] * t779;
        const V t825 = t824 + t823;
        const V t826 = c[4] * t733;
        const V t827 = c[5] * t732;
        const V t828 = t826 - t827;
        const V t829 = c[4] * t732;
        const V t830 = c[5] * t733;
        const V t831 = t830 + t829;
        const V t832 = c[11] * t727;
        const V t833 = c[12] * t726;
        const V t834 = t833 - t832;
        const V t835 = c[11] * t773;
        const V t836 = c[12] * t772;
        const V t837 = t836 - t835;
        const V t838 = c[6] * t787;
        const V t839 = c[7] * t786;
        const V t840 = t839 + t838;
        const V t841 = c[6] * t786;
        const V t842 = c[7] * t787;
        const V t843 = t841 - t842;
        const V t844 = c[6] * t741;
        const V t845 = c[7] * t740;
        const V t846 = t845 + t844;
        const V t847 = c[6] * t740;
        const V t848 = c[7] * t741;
        const V t849 = t848 - t847;
        const V t850 = c[13] * t746;
        const V t851 = c[13] * t792;
        // spectrum block of 3
        const V t852 = t834 + t799;
        const V t853 = c[0] * t834;
        const V t854 = t799 - t853;
        const V t855 = c[14] * t727;
        const V t856 = c[15] * t726;
        const V t857 = t855 + t856;
        const V t858 = t854 + t857;
        const V t859 = t854 - t857;
        // complex block of 3
        const V t860 = t807 - t843;
        const V t861 = t840 + t804;
        const V t862 = t843 + t807;
        const V t863 = t840 - t804;
        const V t864 = t860 + t825;
        const V t865 = t861 + t822;
        const V t866 = c[0] * t860;
        const V t867 = t825 - t866;
        const V t868 = c[0] * t861;
        const V t869 = t822 - t868;
        const V t870 = c[1] * t862;
        const V t871 = c[1] * t863;
        const V t872 = t867 + t871;
        const V t873 = t869 + t870;
        const V t874 = t867 - t871;
        const V t875 = t869 - t870;
        // spectrum block of 3
        const V t876 = t850 - t816;
        const V t877 = c[0] * t816;
        const V t878 = t877 + t850;
        const V t879 = c[16] * t748;
        const V t880 = c[17] * t749;
        const V t881 = t879 - t880;
        const V t882 = t878 + t881;
        const V t883 = t878 - t881;
        // spectrum block of 2
        const V t884 = t852 + t876;
        const V t885 = t852 - t876;
        // spectrum block of 2
        const V t886 = t884 + t865;
        io.re(29, t886);
        const V t887 = t884 - t865;
        io.re(23, t887);
        // spectrum block of 2
        const V t888 = t885 + t864;
        io.re(2, t888);
        const V t889 = t885 - t864;
        io.re(11, t889);
        // spectrum block of 2
        const V t890 = t858 + t882;
        const V t891 = t858 - t882;
        // spectrum block of 2
        const V t892 = t890 + t873;
        io.re(14, t892);
        const V t893 = t890 - t873;
        io.re(38, t893);
        // spectrum block of 2
        const V t894 = t891 + t872;
        io.re(5, t894);
        const V t895 = t891 - t872;
        io.re(8, t895);
        // spectrum block of 2
        const V t896 = t859 + t883;
        const V t897 = t859 - t883;
        // spectrum block of 2
        const V t898 = t896 + t875;
        io.re(35, t898);
        const V t899 = t896 - t875;
        io.re(17, t899);
        // spectrum block of 2
        const V t900 = t897 + t874;
        io.re(32, t900);
        const V t901 = t897 - t874;
        io.re(20, t901);
        // spectrum block of 3
        const V t902 = t837 + t801;
        const V t903 = c[0] * t837;
        const V t904 = t801 - t903;
        const V t905 = c[14] * t773;
        const V t906 = c[15] * t772;
        const V t907 = t905 + t906;
        const V t908 = t904 + t907;
        const V t909 = t904 - t907;
        // complex block of 3
        const V t910 = t849 + t813;
        const V t911 = t810 - t846;
        const V t912 = t813 - t849;
        const V t913 = t846 + t810;
        const V t914 = t910 + t831;
        const V t915 = t911 + t828;
        const V t916 = c[0] * t910;
        const V t917 = t916 - t831;
        const V t918 = c[0] * t911;
        const V t919 = t828 - t918;
        const V t920 = c[1] * t912;
        const V t921 = c[1] * t913;
        const V t922 = t917 - t921;
        const V t923 = t919 - t920;
        const V t924 = t917 + t921;
        const V t925 = t919 + t920;
        // spectrum block of 3
        const V t926 = t851 - t819;
        const V t927 = c[0] * t819;
        const V t928 = t927 + t851;
        const V t929 = c[16] * t794;
        const V t930 = c[17] * t795;
        const V t931 = t929 - t930;
        const V t932 = t928 + t931;
        const V t933 = t928 - t931;
        // spectrum block of 2
        const V t934 = t902 + t926;
        const V t935 = t902 - t926;
        // spectrum block of 2
        const V t936 = t934 + t915;
        io.im(29, t936);
        const V t937 = t934 - t915;
        io.im(23, t937);
        // spectrum block of 2
        const V t938 = t935 - t914;
        io.im(2, t938);
        const V t939 = t935 + t914;
        io.im(11, t939);
        // spectrum block of 2
        const V t940 = t908 + t932;
        const V t941 = t908 - t932;
        // spectrum block of 2
        const V t942 = t940 + t923;
        io.im(14, t942);
        const V t943 = t940 - t923;
        io.im(38, t943);
        // spectrum block of 2
        const V t944 = t941 + t922;
        io.im(5, t944);
        const V t945 = t941 - t922;
        io.im(8, t945);
        // spectrum block of 2
        const V t946 = t909 + t933;
        const V t947 = t909 - t933;
        // spectrum block of 2
        const V t948 = t946 + t925;
        io.im(35, t948);
        const V t949 = t946 - t925;
        io.im(17, t949);
        // spectrum block of 2
        const V t950 = t947 + t924;
        io.im(32, t950);
        const V t951 = t947 - t924;
        io.im(20, t951);
    }
};

}  // namespace zulg
