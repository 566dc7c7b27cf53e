// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 22.
// Complex DFT of 22 points, prime-factor, order 2, 11.
// 194 additions, 162 subtractions, 200 multiplications (244 with `scale`); 14 constants; 48 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<22> {
    static constexpr int steps = 600;  // with `scale`
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.21879791731559586,  // c[4]: -P[1] of 11
        0.6262008235209833,  // c[5]: Q[1] of 11
        0.3770255864361907,  // c[6]: -Q[2] of 11
        0.5457579199356125,  // c[7]: P[2] of 11
        0.24831391555962465,  // c[8]: P[3] of 11
        0.6150936508690751,  // c[9]: Q[3] of 11
        0.6626305969383026,  // c[10]: -Q[4] of 11
        0.030342906933726127,  // c[11]: -P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x11r = io.re(11);
        const V t0 = x0r + x11r;
        const V x0i = io.im(0);
        const V x11i = io.im(11);
        const V t1 = x0i + x11i;
        const V t2 = x0r - x11r;
        const V t3 = x0i - x11i;
        // complex block of 2
        const V x2r = io.re(2);
        const V x13r = io.re(13);
        const V t4 = x2r + x13r;
        const V x2i = io.im(2);
        const V x13i = io.im(13);
        const V t5 = x2i + x13i;
        const V t6 = x2r - x13r;
        const V t7 = x2i - x13i;
        // complex block of 2
        const V x4r = io.re(4);
        const V x15r = io.re(15);
        const V t8 = x4r + x15r;
        const V x4i = io.im(4);
        const V x15i = io.im(15);
        const V t9 = x4i + x15i;
        const V t10 = x4r - x15r;
        const V t11 = x4i - x15i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x17r = io.re(17);
        const V t12 = x6r + x17r;
        const V x6i = io.im(6);
        const V x17i = io.im(17);
        const V t13 = x6i + x17i;
        const V t14 = x6r - x17r;
        const V t15 = x6i - x17i;
        // complex block of 2
        const V x8r = io.re(8);
        const V x19r = io.re(19);
        const V t16 = x8r + x19r;
        const V x8i = io.im(8);
        const V x19i = io.im(19);
        const V t17 = x8i + x19i;
        const V t18 = x8r - x19r;
        const V t19 = x8i - x19i;
        // complex block of 2
        const V x10r = io.re(10);
        const V x21r = io.re(21);
        const V t20 = x10r + x21r;
        const V x10i = io.im(10);
        const V x21i = io.im(21);
        const V t21 = x10i + x21i;
        const V t22 = x10r - x21r;
        const V t23 = x10i - x21i;
        // complex block of 2
        const V x12r = io.re(12);
        const V x1r = io.re(1);
        const V t24 = x12r + x1r;
        const V x12i = io.im(12);
        const V x1i = io.im(1);
        const V t25 = x12i + x1i;
        const V t26 = x12r - x1r;
        const V t27 = x12i - x1i;
        // complex block of 2
        const V x14r = io.re(14);
        const V x3r = io.re(3);
        const V t28 = x14r + x3r;
        const V x14i = io.im(14);
        const V x3i = io.im(3);
        const V t29 = x14i + x3i;
        const V t30 = x14r - x3r;
        const V t31 = x14i - x3i;
        // complex block of 2
        const V x16r = io.re(16);
        const V x5r = io.re(5);
        const V t32 = x16r + x5r;
        const V x16i = io.im(16);
        const V x5i = io.im(5);
        const V t33 = x16i + x5i;
        const V t34 = x16r - x5r;
        const V t35 = x16i - x5i;
        // complex block of 2
        const V x18r = io.re(18);
        const V x7r = io.re(7);
        const V t36 = x18r + x7r;
        const V x18i = io.im(18);
        const V x7i = io.im(7);
        const V t37 = x18i + x7i;
        const V t38 = x18r - x7r;
        const V t39 = x18i - x7i;
        // complex block of 2
        const V x20r = io.re(20);
        const V x9r = io.re(9);
        const V t40 = x20r + x9r;
        const V x20i = io.im(20);
        const V x9i = io.im(9);
        const V t41 = x20i + x9i;
        const V t42 = x20r - x9r;
        const V t43 = x20i - x9i;
        // real block of 5, multiplier 2
        const V t44 = t16 + t12;
        const V t45 = t16 - t12;
        const V t46 = t36 + t20;
        const V t47 = t36 - t20;
        const V t48 = t44 + t46;
        const V t49 = t48 + t4;
        const V t50 = c[0] * t44;
        const V t51 = t4 - t50;
        const V t52 = c[1] * t46;
        const V t53 = t51 + t52;
        const V t54 = c[2] * t45;
        const V t55 = c[3] * t47;
        const V t56 = t54 + t55;
        const V t57 = c[1] * t44;
        const V t58 = c[0] * t46;
        const V t59 = t57 - t58;
        const V t60 = t59 + t4;
        const V t61 = c[3] * t45;
        const V t62 = c[2] * t47;
        const V t63 = t61 - t62;
        // real block of 5, multiplier 2
        const V t64 = t28 + t32;
        const V t65 = t28 - t32;
        const V t66 = t8 + t24;
        const V t67 = t8 - t24;
        const V t68 = t64 + t66;
        const V t69 = t68 + t40;
        const V t70 = c[0] * t64;
        const V t71 = t40 - t70;
        const V t72 = c[1] * t66;
        const V t73 = t71 + t72;
        const V t74 = c[2] * t65;
        const V t75 = c[3] * t67;
        const V t76 = t74 + t75;
        const V t77 = c[1] * t64;
        const V t78 = c[0] * t66;
        const V t79 = t77 - t78;
        const V t80 = t79 + t40;
        const V t81 = c[3] * t65;
        const V t82 = c[2] * t67;
        const V t83 = t81 - t82;
        // real block of 2
        const V t84 = t49 + t69;
        const V t85 = t49 - t69;
        // complex block of 2
        const V t86 = t53 + t73;
        const V t87 = t56 + t76;
        const V t88 = t53 - t73;
        const V t89 = t76 - t56;
        // complex block of 2
        const V t90 = t60 + t80;
        const V t91 = t63 + t83;
        const V t92 = t60 - t80;
        const V t93 = t63 - t83;
        // real block of 5, multiplier 2
        const V t94 = t17 + t13;
        const V t95 = t17 - t13;
        const V t96 = t37 + t21;
        const V t97 = t37 - t21;
        const V t98 = t94 + t96;
        const V t99 = t98 + t5;
        const V t100 = c[0] * t94;
        const V t101 = t5 - t100;
        const V t102 = c[1] * t96;
        const V t103 = t101 + t102;
        const V t104 = c[2] * t95;
        const V t105 = c[3] * t97;
        const V t106 = t104 + t105;
        const V t107 = c[1] * t94;
        const V t108 = c[0] * t96;
        const V t109 = t107 - t108;
        const V t110 = t109 + t5;
        const V t111 = c[3] * t95;
        const V t112 = c[2] * t97;
        const V t113 = t111 - t112;
        // real block of 5, multiplier 2
        const V t114 = t29 + t33;
        const V t115 = t29 - t33;
        const V t116 = t9 + t25;
        const V t117 = t9 - t25;
        const V t118 = t114 + t116;
        const V t119 = t118 + t41;
        const V t120 = c[0] * t114;
        const V t121 = t41 - t120;
        const V t122 = c[1] * t116;
        const V t123 = t121 + t122;
        const V t124 = c[2] * t115;
        const V t125 = c[3] * t117;
        const V t126 = t124 + t125;
        const V t127 = c[1] * t114;
        const V t128 = c[0] * t116;
        const V t129 = t127 - t128;
        const V t130 = t129 + t41;
        const V t131 = c[3] * t115;
        const V t132 = c[2] * t117;
        const V t133 = t131 - t132;
        // real block of 2
        const V t134 = t99 + t119;
        const V t135 = t99 - t119;
        // complex block of 2
        const V t136 = t103 + t123;
        const V t137 = t106 + t126;
        const V t138 = t103 - t123;
        const V t139 = t126 - t106;
        // complex block of 2
        const V t140 = t110 + t130;
        const V t141 = t113 + t133;
        const V t142 = t110 - t130;
        const V t143 = t113 - t133;
        // complex block of 11, multiplier 2
        const V t144 = t0 + t84;
        io.re(0, t144);
        const V t145 = t1 + t134;
        io.im(0, t145);
        const V t146 = c[12] * t84;
        const V t147 = t0 - t146;
        const V t148 = c[12] * t134;
        const V t149 = t1 - t148;
        const V t150 = c[4] * t143;
        const V t151 = c[5] * t142;
        const V t152 = t151 - t150;
        const V t153 = c[4] * t142;
        const V t154 = c[5] * t143;
        const V t155 = t154 + t153;
        const V t156 = c[4] * t93;
        const V t157 = c[5] * t92;
        const V t158 = t156 - t157;
        const V t159 = c[4] * t92;
        const V t160 = c[5] * t93;
        const V t161 = t160 + t159;
        const V t162 = c[6] * t87;
        const V t163 = c[7] * t86;
        const V t164 = t163 - t162;
        const V t165 = c[6] * t86;
        const V t166 = c[7] * t87;
        const V t167 = t166 + t165;
        const V t168 = c[6] * t137;
        const V t169 = c[7] * t136;
        const V t170 = t169 - t168;
        const V t171 = c[6] * t136;
        const V t172 = c[7] * t137;
        const V t173 = t172 + t171;
        const V t174 = c[8] * t139;
        const V t175 = c[9] * t138;
        const V t176 = t175 + t174;
        const V t177 = c[8] * t138;
        const V t178 = c[9] * t139;
        const V t179 = t177 - t178;
        const V t180 = c[8] * t89;
        const V t181 = c[9] * t88;
        const V t182 = t181 + t180;
        const V t183 = c[8] * t88;
        const V t184 = c[9] * t89;
        const V t185 = t184 - t183;
        const V t186 = c[10] * t91;
        const V t187 = c[11] * t90;
        const V t188 = t186 - t187;
        const V t189 = c[10] * t90;
        const V t190 = c[11] * t91;
        const V t191 = t190 + t189;
        const V t192 = c[10] * t141;
        const V t193 = c[11] * t140;
        const V t194 = t192 - t193;
        const V t195 = c[10] * t140;
        const V t196 = c[11] * t141;
        const V t197 = t196 + t195;
        const V t198 = c[13] * t135;
        const V t199 = c[13] * t85;
        // spectrum block of 2
        const V t200 = t147 - t198;
        const V t201 = t147 + t198;
        // complex block of 2
        const V t202 = t167 + t179;
        const V t203 = t164 + t176;
        const V t204 = t179 - t167;
        const V t205 = t164 - t176;
        // complex block of 2
        const V t206 = t155 - t191;
        const V t207 = t188 + t152;
        const V t208 = t191 + t155;
        const V t209 = t188 - t152;
        // spectrum block of 5, multiplier 2
        const V t210 = t203 + t207;
        const V t211 = t210 + t200;
        io.re(2, t211);
        const V t212 = c[1] * t203;
        const V t213 = c[0] * t207;
        const V t214 = t212 - t213;
        const V t215 = t214 + t200;
        const V t216 = c[3] * t202;
        const V t217 = c[2] * t206;
        const V t218 = t217 - t216;
        const V t219 = t215 - t218;
        io.re(10, t219);
        const V t220 = t215 + t218;
        io.re(18, t220);
        const V t221 = c[0] * t203;
        const V t222 = t200 - t221;
        const V t223 = c[1] * t207;
        const V t224 = t222 + t223;
        const V t225 = c[2] * t202;
        const V t226 = c[3] * t206;
        const V t227 = t225 + t226;
        const V t228 = t224 + t227;
        io.re(6, t228);
        const V t229 = t224 - t227;
        io.re(8, t229);
        // spectrum block of 5, multiplier 2
        const V t230 = t205 + t209;
        const V t231 = t230 + t201;
        io.re(20, t231);
        const V t232 = c[1] * t205;
        const V t233 = c[0] * t209;
        const V t234 = t232 - t233;
        const V t235 = t234 + t201;
        const V t236 = c[3] * t204;
        const V t237 = c[2] * t208;
        const V t238 = t236 - t237;
        const V t239 = t235 - t238;
        io.re(12, t239);
        const V t240 = t235 + t238;
        io.re(4, t240);
        const V t241 = c[0] * t205;
        const V t242 = t201 - t241;
        const V t243 = c[1] * t209;
        const V t244 = t242 + t243;
        const V t245 = c[2] * t204;
        const V t246 = c[3] * t208;
        const V t247 = t245 + t246;
        const V t248 = t244 - t247;
        io.re(16, t248);
        const V t249 = t244 + t247;
        io.re(14, t249);
        // spectrum block of 2
        const V t250 = t149 + t199;
        const V t251 = t149 - t199;
        // complex block of 2
        const V t252 = t173 + t185;
        const V t253 = t170 - t182;
        const V t254 = t185 - t173;
        const V t255 = t170 + t182;
        // complex block of 2
        const V t256 = t197 + t161;
        const V t257 = t194 + t158;
        const V t258 = t161 - t197;
        const V t259 = t194 - t158;
        // spectrum block of 5, multiplier 2
        const V t260 = t253 + t257;
        const V t261 = t260 + t250;
        io.im(2, t261);
        const V t262 = c[1] * t253;
        const V t263 = c[0] * t257;
        const V t264 = t262 - t263;
        const V t265 = t264 + t250;
        const V t266 = c[3] * t252;
        const V t267 = c[2] * t256;
        const V t268 = t266 + t267;
        const V t269 = t265 + t268;
        io.im(10, t269);
        const V t270 = t265 - t268;
        io.im(18, t270);
        const V t271 = c[0] * t253;
        const V t272 = t250 - t271;
        const V t273 = c[1] * t257;
        const V t274 = t272 + t273;
        const V t275 = c[2] * t252;
        const V t276 = c[3] * t256;
        const V t277 = t276 - t275;
        const V t278 = t274 - t277;
        io.im(6, t278);
        const V t279 = t274 + t277;
        io.im(8, t279);
        // spectrum block of 5, multiplier 2
        const V t280 = t255 + t259;
        const V t281 = t280 + t251;
        io.im(20, t281);
        const V t282 = c[1] * t255;
        const V t283 = c[0] * t259;
        const V t284 = t282 - t283;
        const V t285 = t284 + t251;
        const V t286 = c[3] * t254;
        const V t287 = c[2] * t258;
        const V t288 = t286 + t287;
        const V t289 = t285 - t288;
        io.im(12, t289);
        const V t290 = t285 + t288;
        io.im(4, t290);
        const V t291 = c[0] * t255;
        const V t292 = t251 - t291;
        const V t293 = c[1] * t259;
        const V t294 = t292 + t293;
        const V t295 = c[2] * t254;
        const V t296 = c[3] * t258;
        const V t297 = t295 - t296;
        const V t298 = t294 - t297;
        io.im(16, t298);
        const V t299 = t294 + t297;
        io.im(14, t299);
        // real block of 5, multiplier 2
        const V t300 = t18 + t14;
        const V t301 = t18 - t14;
        const V t302 = t38 + t22;
        const V t303 = t38 - t22;
        const V t304 = t300 + t302;
        const V t305 = t304 + t6;
        const V t306 = c[0] * t300;
        const V t307 = t6 - t306;
        const V t308 = c[1] * t302;
        const V t309 = t307 + t308;
        const V t310 = c[2] * t301;
        const V t311 = c[3] * t303;
        const V t312 = t310 + t311;
        const V t313 = c[1] * t300;
        const V t314 = c[0] * t302;
        const V t315 = t313 - t314;
        const V t316 = t315 + t6;
        const V t317 = c[3] * t301;
        const V t318 = c[2] * t303;
        const V t319 = t317 - t318;
        // real block of 5, multiplier 2
        const V t320 = t30 + t34;
        const V t321 = t30 - t34;
        const V t322 = t10 + t26;
        const V t323 = t10 - t26;
        const V t324 = t320 + t322;
        const V t325 = t324 + t42;
        const V t326 = c[0] * t320;
        const V t327 = t42 - t326;
        const V t328 = c[1] * t322;
        const V t329 = t327 + t328;
        const V t330 = c[2] * t321;
        const V t331 = c[3] * t323;
        const V t332 = t330 + t331;
        const V t333 = c[1] * t320;
        const V t334 = c[0] * t322;
        const V t335 = t333 - t334;
        const V t336 = t335 + t42;
        const V t337 = c[3] * t321;
        const V t338 = c[2] * t323;
        const V t339 = t337 - t338;
        // real block of 2
        const V t340 = t305 + t325;
        const V t341 = t305 - t325;
        // complex block of 2
        const V t342 = t309 + t329;
        const V t343 = t312 + t332;
        const V t344 = t309 - t329;
        const V t345 = t332 - t312;
        // complex block of 2
        const V t346 = t316 + t336;
        const V t347 = t319 + t339;
        const V t348 = t316 - t336;
        const V t349 = t319 - t339;
        // real block of 5, multiplier 2
        const V t350 = t19 + t15;
        const V t351 = t19 - t15;
        const V t352 = t39 + t23;
        const V t353 = t39 - t23;
        const V t354 = t350 + t352;
        const V t355 = t354 + t7;
        const V t356 = c[0] * t350;
        const V t357 = t7 - t356;
        const V t358 = c[1] * t352;
        const V t359 = t357 + t358;
        const V t360 = c[2] * t351;
        const V t361 = c[3] * t353;
        const V t362 = t360 + t361;
        const V t363 = c[1] * t350;
        const V t364 = c[0] * t352;
        const V t365 = t363 - t364;
        const V t366 = t365 + t7;
        const V t367 = c[3] * t351;
        const V t368 = c[2] * t353;
        const V t369 = t367 - t368;
        // real block of 5, multiplier 2
        const V t370 = t31 + t35;
        const V t371 = t31 - t35;
        const V t372 = t11 + t27;
        const V t373 = t11 - t27;
        const V t374 = t370 + t372;
        const V t375 = t374 + t43;
        const V t376 = c[0] * t370;
        const V t377 = t43 - t376;
        const V t378 = c[1] * t372;
        const V t379 = t377 + t378;
        const V t380 = c[2] * t371;
        const V t381 = c[3] * t373;
        const V t382 = t380 + t381;
        const V t383 = c[1] * t370;
        const V t384 = c[0] * t372;
        const V t385 = t383 - t384;
        const V t386 = t385 + t43;
        const V t387 = c[3] * t371;
        const V t388 = c[2] * t373;
        const V t389 = t387 - t388;
        // real block of 2
        const V t390 = t355 + t375;
        const V t391 = t355 - t375;
        // complex block of 2
        const V t392 = t359 + t379;
        const V t393 = t362 + t382;
        const V t394 = t359 - t379;
        const V t395 = t382 - t362;
        // complex block of 2
        const V t396 = t366 + t386;
        const V t397 = t369 + t389;
        const V t398 = t366 - t386;
        const V t399 = t369 - t389;
        // complex block of 11, multiplier 2
        const V t400 = t2 + t340;
        io.re(11, t400);
        const V t401 = t3 + t390;
        io.im(11, t401);
        const V t402 = c[12] * t340;
        const V t403 = t2 - t402;
        const V t404 = c[12] * t390;
        const V t405 = t3 - t404;
        const V t406 = c[4] * t399;
        const V t407 = c[5] * t398;
        const V t408 = t407 - t406;
        const V t409 = c[4] * t398;
        const V t410 = c[5] * t399;
        const V t411 = t410 + t409;
        const V t412 = c[4] * t349;
        const V t413 = c[5] * t348;
        const V t414 = t412 - t413;
        const V t415 = c[4] * t348;
        const V t416 = c[5] * t349;
        const V t417 = t416 + t415;
        const V t418 = c[6] * t343;
        const V t419 = c[7] * t342;
        const V t420 = t419 - t418;
        const V t421 = c[6] * t342;
        const V t422 = c[7] * t343;
        const V t423 = t422 + t421;
        const V t424 = c[6] * t393;
        const V t425 = c[7] * t392;
        const V t426 = t425 - t424;
        const V t427 = c[6] * t392;
        const V t428 = c[7] * t393;
        const V t429 = t428 + t427;
        const V t430 = c[8] * t395;
        const V t431 = c[9] * t394;
        const V t432 = t431 + t430;
        const V t433 = c[8] * t394;
        const V t434 = c[9] * t395;
        const V t435 = t433 - t434;
        const V t436 = c[8] * t345;
        const V t437 = c[9] * t344;
        const V t438 = t437 + t436;
        const V t439 = c[8] * t344;
        const V t440 = c[9] * t345;
        const V t441 = t440 - t439;
        const V t442 = c[10] * t347;
        const V t443 = c[11] * t346;
        const V t444 = t442 - t443;
        const V t445 = c[10] * t346;
        const V t446 = c[11] * t347;
        const V t447 = t446 + t445;
        const V t448 = c[10] * t397;
        const V t449 = c[11] * t396;
        const V t450 = t448 - t449;
        const V t451 = c[10] * t396;
        const V t452 = c[11] * t397;
        const V t453 = t452 + t451;
        const V t454 = c[13] * t391;
        const V t455 = c[13] * t341;
        // spectrum block of 2
        const V t456 = t403 - t454;
        const V t457 = t403 + t454;
        // complex block of 2
        const V t458 = t423 + t435;
        const V t459 = t420 + t432;
        const V t460 = t435 - t423;
        const V t461 = t420 - t432;
        // complex block of 2
        const V t462 = t411 - t447;
        const V t463 = t444 + t408;
        const V t464 = t447 + t411;
        const V t465 = t444 - t408;
        // spectrum block of 5, multiplier 2
        const V t466 = t459 + t463;
        const V t467 = t466 + t456;
        io.re(13, t467);
        const V t468 = c[1] * t459;
        const V t469 = c[0] * t463;
        const V t470 = t468 - t469;
        const V t471 = t470 + t456;
        const V t472 = c[3] * t458;
        const V t473 = c[2] * t462;
        const V t474 = t473 - t472;
        const V t475 = t471 - t474;
        io.re(21, t475);
        const V t476 = t471 + t474;
        io.re(7, t476);
        const V t477 = c[0] * t459;
        const V t478 = t456 - t477;
        const V t479 = c[1] * t463;
        const V t480 = t478 + t479;
        const V t481 = c[2] * t458;
        const V t482 = c[3] * t462;
        const V t483 = t481 + t482;
        const V t484 = t480 + t483;
        io.re(17, t484);
        const V t485 = t480 - t483;
        io.re(19, t485);
        // spectrum block of 5, multiplier 2
        const V t486 = t461 + t465;
        const V t487 = t486 + t457;
        io.re(9, t487);
        const V t488 = c[1] * t461;
        const V t489 = c[0] * t465;
        const V t490 = t488 - t489;
        const V t491 = t490 + t457;
        const V t492 = c[3] * t460;
        const V t493 = c[2] * t464;
        const V t494 = t492 - t493;
        const V t495 = t491 - t494;
        io.re(1, t495);
        const V t496 = t491 + t494;
        io.re(15, t496);
        const V t497 = c[0] * t461;
        const V t498 = t457 - t497;
        const V t499 = c[1] * t465;
        const V t500 = t498 + t499;
        const V t501 = c[2] * t460;
        const V t502 = c[3] * t464;
        const V t503 = t501 + t502;
        const V t504 = t500 - t503;
        io.re(5, t504);
        const V t505 = t500 + t503;
        io.re(3, t505);
        // spectrum block of 2
        const V t506 = t405 + t455;
        const V t507 = t405 - t455;
        // complex block of 2
        const V t508 = t429 + t441;
        const V t509 = t426 - t438;
        const V t510 = t441 - t429;
        const V t511 = t426 + t438;
        // complex block of 2
        const V t512 = t453 + t417;
        const V t513 = t450 + t414;
        const V t514 = t417 - t453;
        const V t515 = t450 - t414;
        // spectrum block of 5, multiplier 2
        const V t516 = t509 + t513;
        const V t517 = t516 + t506;
        io.im(13, t517);
        const V t518 = c[1] * t509;
        const V t519 = c[0] * t513;
        const V t520 = t518 - t519;
        const V t521 = t520 + t506;
        const V t522 = c[3] * t508;
        const V t523 = c[2] * t512;
        const V t524 = t522 + t523;
        const V t525 = t521 + t524;
        io.im(21, t525);
        const V t526 = t521 - t524;
        io.im(7, t526);
        const V t527 = c[0] * t509;
        const V t528 = t506 - t527;
        const V t529 = c[1] * t513;
        const V t530 = t528 + t529;
        const V t531 = c[2] * t508;
        const V t532 = c[3] * t512;
        const V t533 = t532 - t531;
        const V t534 = t530 - t533;
        io.im(17, t534);
        const V t535 = t530 + t533;
        io.im(19, t535);
        // spectrum block of 5, multiplier 2
        const V t536 = t511 + t515;
        const V t537 = t536 + t507;
        io.im(9, t537);
        const V t538 = c[1] * t511;
        const V t539 = c[0] * t515;
        const V t540 = t538 - t539;
        const V t541 = t540 + t507;
        const V t542 = c[3] * t510;
        const V t543 = c[2] * t514;
        const V t544 = t542 + t543;
        const V t545 = t541 - t544;
        io.im(1, t545);
        const V t546 = t541 + t544;
        io.im(15, t546);
        const V t547 = c[0] * t511;
        const V t548 = t507 - t547;
        const V t549 = c[1] * t515;
        const V t550 = t548 + t549;
        const V t551 = c[2] * t510;
        const V t552 = c[3] * t514;
        const V t553 = t551 - t552;
        const V t554 = t550 - t553;
        io.im(5, t554);
        const V t555 = t550 + t553;
        io.im(3, t555);
    }
};

}  // namespace zulg
