// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 26.
// Complex DFT of 26 points, prime-factor, order 13, 2.
// 202 additions, 202 subtractions, 144 multiplications (196 with `scale`); 18 constants; 58 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<26> {
    static constexpr int steps = 600;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.2869425954512852,  // c[2]: P[1] of 13
        0.5279915321544383,  // c[3]: Q[1] of 13
        0.1741386011521359,  // c[4]: -P[3] of 13
        0.5751407294740031,  // c[5]: Q[3] of 13
        0.5316276774946329,  // c[6]: P[5] of 13
        0.280148395734785,  // c[7]: -Q[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.29376443202296976,  // c[9]: -Q[2] of 13
        0.5242266395265821,  // c[10]: P[2] of 13
        0.42218506973345193,  // c[11]: -Q[4] of 13
        0.42763404682657274,  // c[12]: P[4] of 13
        0.3004626062886658,  // c[13]: -beta of 13
        0.37034194807495624,  // c[14]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[15]: sin 2 pi 1/3 times -Q[4] of 13
        0.45399358717056765,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.25440746086019866,  // c[17]: sin 2 pi 1/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x2r = io.re(2);
        const V x24r = io.re(24);
        const V t0 = x2r + x24r;
        const V t1 = x2r - x24r;
        // real block of 2
        const V x16r = io.re(16);
        const V x10r = io.re(10);
        const V t2 = x16r + x10r;
        const V t3 = x16r - x10r;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x6r = io.re(6);
        const V x20r = io.re(20);
        const V t6 = x6r + x20r;
        const V t7 = x6r - x20r;
        // real block of 2
        const V x22r = io.re(22);
        const V x4r = io.re(4);
        const V t8 = x22r + x4r;
        const V t9 = x22r - x4r;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x18r = io.re(18);
        const V x8r = io.re(8);
        const V t12 = x18r + x8r;
        const V t13 = x18r - x8r;
        // real block of 2
        const V x14r = io.re(14);
        const V x12r = io.re(12);
        const V t14 = x14r + x12r;
        const V t15 = x14r - x12r;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 3
        const V t18 = t10 + t16;
        const V t19 = t10 - t16;
        const V t20 = t18 + t4;
        const V t21 = c[0] * t18;
        const V t22 = t4 - t21;
        const V t23 = c[1] * t19;
        // complex block of 3
        const V t24 = t7 + t13;
        const V t25 = t9 + t15;
        const V t26 = t7 - t13;
        const V t27 = t9 - t15;
        const V t28 = t24 + t1;
        const V t29 = t25 + t3;
        const V t30 = c[0] * t24;
        const V t31 = t1 - t30;
        const V t32 = c[0] * t25;
        const V t33 = t3 - t32;
        const V t34 = c[1] * t26;
        const V t35 = c[1] * t27;
        const V t36 = t31 + t35;
        const V t37 = t33 - t34;
        const V t38 = t31 - t35;
        const V t39 = t33 + t34;
        // real block of 3
        const V t40 = t11 + t17;
        const V t41 = t11 - t17;
        const V t42 = t40 + t5;
        const V t43 = c[0] * t40;
        const V t44 = t5 - t43;
        const V t45 = c[1] * t41;
        // real block of 2
        const V x2i = io.im(2);
        const V x24i = io.im(24);
        const V t46 = x2i + x24i;
        const V t47 = x2i - x24i;
        // real block of 2
        const V x16i = io.im(16);
        const V x10i = io.im(10);
        const V t48 = x16i + x10i;
        const V t49 = x16i - x10i;
        // real block of 2
        const V t50 = t46 + t48;
        const V t51 = t46 - t48;
        // real block of 2
        const V x6i = io.im(6);
        const V x20i = io.im(20);
        const V t52 = x6i + x20i;
        const V t53 = x6i - x20i;
        // real block of 2
        const V x22i = io.im(22);
        const V x4i = io.im(4);
        const V t54 = x22i + x4i;
        const V t55 = x22i - x4i;
        // real block of 2
        const V t56 = t52 + t54;
        const V t57 = t52 - t54;
        // real block of 2
        const V x18i = io.im(18);
        const V x8i = io.im(8);
        const V t58 = x18i + x8i;
        const V t59 = x18i - x8i;
        // real block of 2
        const V x14i = io.im(14);
        const V x12i = io.im(12);
        const V t60 = x14i + x12i;
        const V t61 = x14i - x12i;
        // real block of 2
        const V t62 = t58 + t60;
        const V t63 = t58 - t60;
        // real block of 3
        const V t64 = t56 + t62;
        const V t65 = t56 - t62;
        const V t66 = t64 + t50;
        const V t67 = c[0] * t64;
        const V t68 = t50 - t67;
        const V t69 = c[1] * t65;
        // complex block of 3
        const V t70 = t53 + t59;
        const V t71 = t55 + t61;
        const V t72 = t53 - t59;
        const V t73 = t55 - t61;
        const V t74 = t70 + t47;
        const V t75 = t71 + t49;
        const V t76 = c[0] * t70;
        const V t77 = t47 - t76;
        const V t78 = c[0] * t71;
        const V t79 = t49 - t78;
        const V t80 = c[1] * t72;
        const V t81 = c[1] * t73;
        const V t82 = t77 + t81;
        const V t83 = t79 - t80;
        const V t84 = t77 - t81;
        const V t85 = t79 + t80;
        // real block of 3
        const V t86 = t57 + t63;
        const V t87 = t57 - t63;
        const V t88 = t86 + t51;
        const V t89 = c[0] * t86;
        const V t90 = t51 - t89;
        const V t91 = c[1] * t87;
        // complex block of 13, multiplier 2
        const V x0r = io.re(0);
        const V t92 = x0r + t20;
        const V x0i = io.im(0);
        const V t93 = x0i + t66;
        const V t94 = c[8] * t20;
        const V t95 = x0r - t94;
        const V t96 = c[8] * t66;
        const V t97 = x0i - t96;
        const V t98 = c[2] * t85;
        const V t99 = c[3] * t84;
        const V t100 = t99 + t98;
        const V t101 = c[2] * t84;
        const V t102 = c[3] * t85;
        const V t103 = t101 - t102;
        const V t104 = c[2] * t39;
        const V t105 = c[3] * t38;
        const V t106 = t105 + t104;
        const V t107 = c[2] * t38;
        const V t108 = c[3] * t39;
        const V t109 = t108 - t107;
        const V t110 = c[9] * t45;
        const V t111 = c[10] * t44;
        const V t112 = t111 + t110;
        const V t113 = c[9] * t91;
        const V t114 = c[10] * t90;
        const V t115 = t114 + t113;
        const V t116 = c[4] * t75;
        const V t117 = c[5] * t74;
        const V t118 = t117 + t116;
        const V t119 = c[4] * t74;
        const V t120 = c[5] * t75;
        const V t121 = t120 - t119;
        const V t122 = c[4] * t29;
        const V t123 = c[5] * t28;
        const V t124 = t123 + t122;
        const V t125 = c[4] * t28;
        const V t126 = c[5] * t29;
        const V t127 = t125 - t126;
        const V t128 = c[11] * t23;
        const V t129 = c[12] * t22;
        const V t130 = t129 - t128;
        const V t131 = c[11] * t69;
        const V t132 = c[12] * t68;
        const V t133 = t132 - t131;
        const V t134 = c[6] * t83;
        const V t135 = c[7] * t82;
        const V t136 = t134 - t135;
        const V t137 = c[6] * t82;
        const V t138 = c[7] * t83;
        const V t139 = t138 + t137;
        const V t140 = c[6] * t37;
        const V t141 = c[7] * t36;
        const V t142 = t141 - t140;
        const V t143 = c[6] * t36;
        const V t144 = c[7] * t37;
        const V t145 = t144 + t143;
        const V t146 = c[13] * t42;
        const V t147 = c[13] * t88;
        // spectrum block of 3
        const V t148 = t130 + t95;
        const V t149 = c[0] * t130;
        const V t150 = t95 - t149;
        const V t151 = c[14] * t23;
        const V t152 = c[15] * t22;
        const V t153 = t151 + t152;
        const V t154 = t150 + t153;
        const V t155 = t150 - t153;
        // complex block of 3
        const V t156 = t139 + t103;
        const V t157 = t136 + t100;
        const V t158 = t103 - t139;
        const V t159 = t136 - t100;
        const V t160 = t121 - t156;
        const V t161 = t157 + t118;
        const V t162 = c[0] * t156;
        const V t163 = t162 + t121;
        const V t164 = c[0] * t157;
        const V t165 = t118 - t164;
        const V t166 = c[1] * t158;
        const V t167 = c[1] * t159;
        const V t168 = t163 + t167;
        const V t169 = t165 - t166;
        const V t170 = t163 - t167;
        const V t171 = t165 + t166;
        // spectrum block of 3
        const V t172 = t112 - t146;
        const V t173 = c[0] * t112;
        const V t174 = t146 + t173;
        const V t175 = c[16] * t45;
        const V t176 = c[17] * t44;
        const V t177 = t175 - t176;
        const V t178 = t177 - t174;
        const V t179 = t174 + t177;
        // spectrum block of 2
        const V t180 = t148 + t172;
        const V t181 = t148 - t172;
        // spectrum block of 2
        const V t182 = t180 + t161;
        const V t183 = t180 - t161;
        // spectrum block of 2
        const V t184 = t181 + t160;
        const V t185 = t181 - t160;
        // spectrum block of 2
        const V t186 = t154 + t178;
        const V t187 = t154 - t178;
        // spectrum block of 2
        const V t188 = t186 + t169;
        const V t189 = t186 - t169;
        // spectrum block of 2
        const V t190 = t187 + t168;
        const V t191 = t187 - t168;
        // spectrum block of 2
        const V t192 = t155 - t179;
        const V t193 = t155 + t179;
        // spectrum block of 2
        const V t194 = t192 + t171;
        const V t195 = t192 - t171;
        // spectrum block of 2
        const V t196 = t193 + t170;
        const V t197 = t193 - t170;
        // spectrum block of 3
        const V t198 = t133 + t97;
        const V t199 = c[0] * t133;
        const V t200 = t97 - t199;
        const V t201 = c[14] * t69;
        const V t202 = c[15] * t68;
        const V t203 = t201 + t202;
        const V t204 = t200 + t203;
        const V t205 = t200 - t203;
        // complex block of 3
        const V t206 = t145 - t109;
        const V t207 = t142 - t106;
        const V t208 = t145 + t109;
        const V t209 = t142 + t106;
        const V t210 = t206 + t127;
        const V t211 = t207 - t124;
        const V t212 = c[0] * t206;
        const V t213 = t127 - t212;
        const V t214 = c[0] * t207;
        const V t215 = t124 + t214;
        const V t216 = c[1] * t208;
        const V t217 = c[1] * t209;
        const V t218 = t213 + t217;
        const V t219 = t215 + t216;
        const V t220 = t213 - t217;
        const V t221 = t216 - t215;
        // spectrum block of 3
        const V t222 = t115 - t147;
        const V t223 = c[0] * t115;
        const V t224 = t147 + t223;
        const V t225 = c[16] * t91;
        const V t226 = c[17] * t90;
        const V t227 = t225 - t226;
        const V t228 = t227 - t224;
        const V t229 = t224 + t227;
        // spectrum block of 2
        const V t230 = t198 + t222;
        const V t231 = t198 - t222;
        // spectrum block of 2
        const V t232 = t230 + t211;
        const V t233 = t230 - t211;
        // spectrum block of 2
        const V t234 = t231 + t210;
        const V t235 = t231 - t210;
        // spectrum block of 2
        const V t236 = t204 + t228;
        const V t237 = t204 - t228;
        // spectrum block of 2
        const V t238 = t236 - t219;
        const V t239 = t236 + t219;
        // spectrum block of 2
        const V t240 = t237 + t218;
        const V t241 = t237 - t218;
        // spectrum block of 2
        const V t242 = t205 - t229;
        const V t243 = t205 + t229;
        // spectrum block of 2
        const V t244 = t242 + t221;
        const V t245 = t242 - t221;
        // spectrum block of 2
        const V t246 = t243 + t220;
        const V t247 = t243 - t220;
        // real block of 2
        const V x15r = io.re(15);
        const V x11r = io.re(11);
        const V t248 = x15r + x11r;
        const V t249 = x15r - x11r;
        // real block of 2
        const V x3r = io.re(3);
        const V x23r = io.re(23);
        const V t250 = x3r + x23r;
        const V t251 = x3r - x23r;
        // real block of 2
        const V t252 = t248 + t250;
        const V t253 = t248 - t250;
        // real block of 2
        const V x19r = io.re(19);
        const V x7r = io.re(7);
        const V t254 = x19r + x7r;
        const V t255 = x19r - x7r;
        // real block of 2
        const V x9r = io.re(9);
        const V x17r = io.re(17);
        const V t256 = x9r + x17r;
        const V t257 = x9r - x17r;
        // real block of 2
        const V t258 = t254 + t256;
        const V t259 = t254 - t256;
        // real block of 2
        const V x5r = io.re(5);
        const V x21r = io.re(21);
        const V t260 = x5r + x21r;
        const V t261 = x5r - x21r;
        // real block of 2
        const V x1r = io.re(1);
        const V x25r = io.re(25);
        const V t262 = x1r + x25r;
        const V t263 = x1r - x25r;
        // real block of 2
        const V t264 = t260 + t262;
        const V t265 = t260 - t262;
        // real block of 3
        const V t266 = t258 + t264;
        const V t267 = t258 - t264;
        const V t268 = t266 + t252;
        const V t269 = c[0] * t266;
        const V t270 = t252 - t269;
        const V t271 = c[1] * t267;
        // complex block of 3
        const V t272 = t255 + t261;
        const V t273 = t257 + t263;
        const V t274 = t255 - t261;
        const V t275 = t257 - t263;
        const V t276 = t272 + t249;
        const V t277 = t273 + t251;
        const V t278 = c[0] * t272;
        const V t279 = t249 - t278;
        const V t280 = c[0] * t273;
        const V t281 = t251 - t280;
        const V t282 = c[1] * t274;
        const V t283 = c[1] * t275;
        const V t284 = t279 + t283;
        const V t285 = t281 - t282;
        const V t286 = t279 - t283;
        const V t287 = t281 + t282;
        // real block of 3
        const V t288 = t259 + t265;
        const V t289 = t259 - t265;
        const V t290 = t288 + t253;
        const V t291 = c[0] * t288;
        const V t292 = t253 - t291;
        const V t293 = c[1] * t289;
        // real block of 2
        const V x15i = io.im(15);
        const V x11i = io.im(11);
        const V t294 = x15i + x11i;
        const V t295 = x15i - x11i;
        // real block of 2
        const V x3i = io.im(3);
        const V x23i = io.im(23);
        const V t296 = x3i + x23i;
        const V t297 = x3i - x23i;
        // real block of 2
        const V t298 = t294 + t296;
        const V t299 = t294 - t296;
        // real block of 2
        const V x19i = io.im(19);
        const V x7i = io.im(7);
        const V t300 = x19i + x7i;
        const V t301 = x19i - x7i;
        // real block of 2
        const V x9i = io.im(9);
        const V x17i = io.im(17);
        const V t302 = x9i + x17i;
        const V t303 = x9i - x17i;
        // real block of 2
        const V t304 = t300 + t302;
        const V t305 = t300 - t302;
        // real block of 2
        const V x5i = io.im(5);
        const V x21i = io.im(21);
        const V t306 = x5i + x21i;
        const V t307 = x5i - x21i;
        // real block of 2
        const V x1i = io.im(1);
        const V x25i = io.im(25);
        const V t308 = x1i + x25i;
        const V t309 = x1i - x25i;
        // real block of 2
        const V t310 = t306 + t308;
        const V t311 = t306 - t308;
        // real block of 3
        const V t312 = t304 + t310;
        const V t313 = t304 - t310;
        const V t314 = t312 + t298;
        const V t315 = c[0] * t312;
        const V t316 = t298 - t315;
        const V t317 = c[1] * t313;
        // complex block of 3
        const V t318 = t301 + t307;
        const V t319 = t303 + t309;
        const V t320 = t301 - t307;
        const V t321 = t303 - t309;
        const V t322 = t318 + t295;
        const V t323 = t319 + t297;
        const V t324 = c[0] * t318;
        const V t325 = t295 - t324;
        const V t326 = c[0] * t319;
        const V t327 = t297 - t326;
        const V t328 = c[1] * t320;
        const V t329 = c[1] * t321;
        const V t330 = t325 + t329;
        const V t331 = t327 - t328;
        const V t332 = t325 - t329;
        const V t333 = t327 + t328;
        // real block of 3
        const V t334 = t305 + t311;
        const V t335 = t305 - t311;
        const V t336 = t334 + t299;
        const V t337 = c[0] * t334;
        const V t338 = t299 - t337;
        const V t339 = c[1] * t335;
        // complex block of 13, multiplier 2
        const V x13r = io.re(13);
        const V t340 = x13r + t268;
        const V x13i = io.im(13);
        const V t341 = x13i + t314;
        const V t342 = c[8] * t268;
        const V t343 = x13r - t342;
        const V t344 = c[8] * t314;
        const V t345 = x13i - t344;
        const V t346 = c[2] * t333;
        const V t347 = c[3] * t332;
        const V t348 = t347 + t346;
        const V t349 = c[2] * t332;
        const V t350 = c[3] * t333;
        const V t351 = t349 - t350;
        const V t352 = c[2] * t287;
        const V t353 = c[3] * t286;
        const V t354 = t353 + t352;
        const V t355 = c[2] * t286;
        const V t356 = c[3] * t287;
        const V t357 = t356 - t355;
        const V t358 = c[9] * t293;
        const V t359 = c[10] * t292;
        const V t360 = t359 + t358;
        const V t361 = c[9] * t339;
        const V t362 = c[10] * t338;
        const V t363 = t362 + t361;
        const V t364 = c[4] * t323;
        const V t365 = c[5] * t322;
        const V t366 = t365 + t364;
        const V t367 = c[4] * t322;
        const V t368 = c[5] * t323;
        const V t369 = t368 - t367;
        const V t370 = c[4] * t277;
        const V t371 = c[5] * t276;
        const V t372 = t371 + t370;
        const V t373 = c[4] * t276;
        const V t374 = c[5] * t277;
        const V t375 = t373 - t374;
        const V t376 = c[11] * t271;
        const V t377 = c[12] * t270;
        const V t378 = t377 - t376;
        const V t379 = c[11] * t317;
        const V t380 = c[12] * t316;
        const V t381 = t380 - t379;
        const V t382 = c[6] * t331;
        const V t383 = c[7] * t330;
        const V t384 = t382 - t383;
        const V t385 = c[6] * t330;
        const V t386 = c[7] * t331;
        const V t387 = t386 + t385;
        const V t388 = c[6] * t285;
        const V t389 = c[7] * t284;
        const V t390 = t389 - t388;
        const V t391 = c[6] * t284;
        const V t392 = c[7] * t285;
        const V t393 = t392 + t391;
        const V t394 = c[13] * t290;
        const V t395 = c[13] * t336;
        // spectrum block of 3
        const V t396 = t378 + t343;
        const V t397 = c[0] * t378;
        const V t398 = t343 - t397;
        const V t399 = c[14] * t271;
        const V t400 = c[15] * t270;
        const V t401 = t399 + t400;
        const V t402 = t398 + t401;
        const V t403 = t398 - t401;
        // complex block of 3
        const V t404 = t387 + t351;
        const V t405 = t384 + t348;
        const V t406 = t351 - t387;
        const V t407 = t384 - t348;
        const V t408 = t369 - t404;
        const V t409 = t405 + t366;
        const V t410 = c[0] * t404;
        const V t411 = t410 + t369;
        const V t412 = c[0] * t405;
        const V t413 = t366 - t412;
        const V t414 = c[1] * t406;
        const V t415 = c[1] * t407;
        const V t416 = t411 + t415;
        const V t417 = t413 - t414;
        const V t418 = t411 - t415;
        const V t419 = t413 + t414;
        // spectrum block of 3
        const V t420 = t360 - t394;
        const V t421 = c[0] * t360;
        const V t422 = t394 + t421;
        const V t423 = c[16] * t293;
        const V t424 = c[17] * t292;
        const V t425 = t423 - t424;
        const V t426 = t425 - t422;
        const V t427 = t422 + t425;
        // spectrum block of 2
        const V t428 = t396 + t420;
        const V t429 = t396 - t420;
        // spectrum block of 2
        const V t430 = t428 + t409;
        const V t431 = t428 - t409;
        // spectrum block of 2
        const V t432 = t429 + t408;
        const V t433 = t429 - t408;
        // spectrum block of 2
        const V t434 = t402 + t426;
        const V t435 = t402 - t426;
        // spectrum block of 2
        const V t436 = t434 + t417;
        const V t437 = t434 - t417;
        // spectrum block of 2
        const V t438 = t435 + t416;
        const V t439 = t435 - t416;
        // spectrum block of 2
        const V t440 = t403 - t427;
        const V t441 = t403 + t427;
        // spectrum block of 2
        const V t442 = t440 + t419;
        const V t443 = t440 - t419;
        // spectrum block of 2
        const V t444 = t441 + t418;
        const V t445 = t441 - t418;
        // spectrum block of 3
        const V t446 = t381 + t345;
        const V t447 = c[0] * t381;
        const V t448 = t345 - t447;
        const V t449 = c[14] * t317;
        const V t450 = c[15] * t316;
        const V t451 = t449 + t450;
        const V t452 = t448 + t451;
        const V t453 = t448 - t451;
        // complex block of 3
        const V t454 = t393 - t357;
        const V t455 = t390 - t354;
        const V t456 = t393 + t357;
        const V t457 = t390 + t354;
        const V t458 = t454 + t375;
        const V t459 = t455 - t372;
        const V t460 = c[0] * t454;
        const V t461 = t375 - t460;
        const V t462 = c[0] * t455;
        const V t463 = t372 + t462;
        const V t464 = c[1] * t456;
        const V t465 = c[1] * t457;
        const V t466 = t461 + t465;
        const V t467 = t463 + t464;
        const V t468 = t461 - t465;
        const V t469 = t464 - t463;
        // spectrum block of 3
        const V t470 = t363 - t395;
        const V t471 = c[0] * t363;
        const V t472 = t395 + t471;
        const V t473 = c[16] * t339;
        const V t474 = c[17] * t338;
        const V t475 = t473 - t474;
        const V t476 = t475 - t472;
        const V t477 = t472 + t475;
        // spectrum block of 2
        const V t478 = t446 + t470;
        const V t479 = t446 - t470;
        // spectrum block of 2
        const V t480 = t478 + t459;
        const V t481 = t478 - t459;
        // spectrum block of 2
        const V t482 = t479 + t458;
        const V t483 = t479 - t458;
        // spectrum block of 2
        const V t484 = t452 + t476;
        const V t485 = t452 - t476;
        // spectrum block of 2
        const V t486 = t484 - t467;
        const V t487 = t484 + t467;
        // spectrum block of 2
        const V t488 = t485 + t466;
        const V t489 = t485 - t466;
        // spectrum block of 2
        const V t490 = t453 - t477;
        const V t491 = t453 + t477;
        // spectrum block of 2
        const V t492 = t490 + t469;
        const V t493 = t490 - t469;
        // spectrum block of 2
        const V t494 = t491 + t468;
        const V t495 = t491 - t468;
        // complex block of 2
        const V t496 = t92 + t340;
        io.re(0, t496);
        const V t497 = t93 + t341;
        io.im(0, t497);
        const V t498 = t92 - t340;
        io.re(13, t498);
        const V t499 = t93 - t341;
        io.im(13, t499);
        // complex block of 2
        const V t500 = t182 + t430;
        io.re(2, t500);
        const V t501 = t232 + t480;
        io.im(2, t501);
        const V t502 = t182 - t430;
        io.re(15, t502);
        const V t503 = t232 - t480;
        io.im(15, t503);
        // complex block of 2
        const V t504 = t196 + t444;
        io.re(4, t504);
        const V t505 = t246 + t494;
        io.im(4, t505);
        const V t506 = t196 - t444;
        io.re(17, t506);
        const V t507 = t246 - t494;
        io.im(17, t507);
        // complex block of 2
        const V t508 = t194 + t442;
        io.re(6, t508);
        const V t509 = t244 + t492;
        io.im(6, t509);
        const V t510 = t194 - t442;
        io.re(19, t510);
        const V t511 = t244 - t492;
        io.im(19, t511);
        // complex block of 2
        const V t512 = t189 + t437;
        io.re(8, t512);
        const V t513 = t239 + t487;
        io.im(8, t513);
        const V t514 = t189 - t437;
        io.re(21, t514);
        const V t515 = t239 - t487;
        io.im(21, t515);
        // complex block of 2
        const V t516 = t184 + t432;
        io.re(10, t516);
        const V t517 = t234 + t482;
        io.im(10, t517);
        const V t518 = t184 - t432;
        io.re(23, t518);
        const V t519 = t234 - t482;
        io.im(23, t519);
        // complex block of 2
        const V t520 = t190 + t438;
        io.re(12, t520);
        const V t521 = t240 + t488;
        io.im(12, t521);
        const V t522 = t190 - t438;
        io.re(25, t522);
        const V t523 = t240 - t488;
        io.im(25, t523);
        // complex block of 2
        const V t524 = t191 + t439;
        io.re(14, t524);
        const V t525 = t241 + t489;
        io.im(14, t525);
        const V t526 = t191 - t439;
        io.re(1, t526);
        const V t527 = t241 - t489;
        io.im(1, t527);
        // complex block of 2
        const V t528 = t185 + t433;
        io.re(16, t528);
        const V t529 = t235 + t483;
        io.im(16, t529);
        const V t530 = t185 - t433;
        io.re(3, t530);
        const V t531 = t235 - t483;
        io.im(3, t531);
        // complex block of 2
        const V t532 = t188 + t436;
        io.re(18, t532);
        const V t533 = t238 + t486;
        io.im(18, t533);
        const V t534 = t188 - t436;
        io.re(5, t534);
        const V t535 = t238 - t486;
        io.im(5, t535);
        // complex block of 2
        const V t536 = t195 + t443;
        io.re(20, t536);
        const V t537 = t245 + t493;
        io.im(20, t537);
        const V t538 = t195 - t443;
        io.re(7, t538);
        const V t539 = t245 - t493;
        io.im(7, t539);
        // complex block of 2
        const V t540 = t197 + t445;
        io.re(22, t540);
        const V t541 = t247 + t495;
        io.im(22, t541);
        const V t542 = t197 - t445;
        io.re(9, t542);
        const V t543 = t247 - t495;
        io.im(9, t543);
        // complex block of 2
        const V t544 = t183 + t431;
        io.re(24, t544);
        const V t545 = t233 + t481;
        io.im(24, t545);
        const V t546 = t183 - t431;
        io.re(11, t546);
        const V t547 = t233 - t481;
        io.im(11, t547);
    }
};

}  // namespace zulg
