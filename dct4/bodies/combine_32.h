// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_combine, 32.
// Combine row of radix 32, rotations and DFTs of 8, then of 4.
// 220 additions, 220 subtractions, 224 multiplications; 1 constants; 82 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Combine<32> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Combine> c{};
        // inner step 0
        const V x4i = io.im(4);
        const V w1 = io.inner(1);
        const V t0 = x4i * w1;
        const V x4r = io.re(4);
        const V w0 = io.inner(0);
        const V t1 = x4r * w0;
        const V t2 = t1 - t0;
        const V t3 = x4i * w0;
        const V t4 = x4r * w1;
        const V t5 = t4 + t3;
        const V x8i = io.im(8);
        const V w3 = io.inner(3);
        const V t6 = x8i * w3;
        const V x8r = io.re(8);
        const V w2 = io.inner(2);
        const V t7 = x8r * w2;
        const V t8 = t7 - t6;
        const V t9 = x8i * w2;
        const V t10 = x8r * w3;
        const V t11 = t10 + t9;
        const V x12i = io.im(12);
        const V w5 = io.inner(5);
        const V t12 = x12i * w5;
        const V x12r = io.re(12);
        const V w4 = io.inner(4);
        const V t13 = x12r * w4;
        const V t14 = t13 - t12;
        const V t15 = x12i * w4;
        const V t16 = x12r * w5;
        const V t17 = t16 + t15;
        const V x16i = io.im(16);
        const V w7 = io.inner(7);
        const V t18 = x16i * w7;
        const V x16r = io.re(16);
        const V w6 = io.inner(6);
        const V t19 = x16r * w6;
        const V t20 = t19 - t18;
        const V t21 = x16i * w6;
        const V t22 = x16r * w7;
        const V t23 = t22 + t21;
        const V x20i = io.im(20);
        const V w9 = io.inner(9);
        const V t24 = x20i * w9;
        const V x20r = io.re(20);
        const V w8 = io.inner(8);
        const V t25 = x20r * w8;
        const V t26 = t25 - t24;
        const V t27 = x20i * w8;
        const V t28 = x20r * w9;
        const V t29 = t28 + t27;
        const V x24i = io.im(24);
        const V w11 = io.inner(11);
        const V t30 = x24i * w11;
        const V x24r = io.re(24);
        const V w10 = io.inner(10);
        const V t31 = x24r * w10;
        const V t32 = t31 - t30;
        const V t33 = x24i * w10;
        const V t34 = x24r * w11;
        const V t35 = t34 + t33;
        const V x28i = io.im(28);
        const V w13 = io.inner(13);
        const V t36 = x28i * w13;
        const V x28r = io.re(28);
        const V w12 = io.inner(12);
        const V t37 = x28r * w12;
        const V t38 = t37 - t36;
        const V t39 = x28i * w12;
        const V t40 = x28r * w13;
        const V t41 = t40 + t39;
        // complex block of 2
        const V x0i = io.im(0);
        const V t42 = x0i + t23;
        const V x0r = io.re(0);
        const V t43 = x0r + t20;
        const V t44 = x0i - t23;
        const V t45 = x0r - t20;
        // complex block of 2
        const V t46 = t5 + t29;
        const V t47 = t2 + t26;
        const V t48 = t5 - t29;
        const V t49 = t2 - t26;
        // complex block of 2
        const V t50 = t11 + t35;
        const V t51 = t8 + t32;
        const V t52 = t11 - t35;
        const V t53 = t8 - t32;
        // complex block of 2
        const V t54 = t17 + t41;
        const V t55 = t14 + t38;
        const V t56 = t17 - t41;
        const V t57 = t14 - t38;
        // complex block of 2
        const V t58 = t42 + t50;
        const V t59 = t43 + t51;
        const V t60 = t42 - t50;
        const V t61 = t43 - t51;
        // complex block of 2
        const V t62 = t46 + t54;
        const V t63 = t47 + t55;
        const V t64 = t46 - t54;
        const V t65 = t47 - t55;
        // complex block of 2
        const V t66 = t58 + t62;
        const V t67 = t59 + t63;
        const V t68 = t58 - t62;
        const V t69 = t59 - t63;
        // complex block of 2
        const V t70 = t60 + t65;
        const V t71 = t61 - t64;
        const V t72 = t60 - t65;
        const V t73 = t61 + t64;
        // complex block of 8
        const V t74 = c[0] * t48;
        const V t75 = c[0] * t49;
        const V t76 = t74 + t75;
        const V t77 = t75 - t74;
        const V t78 = c[0] * t56;
        const V t79 = c[0] * t57;
        const V t80 = t78 + t79;
        const V t81 = t79 - t78;
        // complex block of 2
        const V t82 = t44 + t53;
        const V t83 = t45 - t52;
        const V t84 = t44 - t53;
        const V t85 = t45 + t52;
        // complex block of 2
        const V t86 = t76 + t81;
        const V t87 = t77 - t80;
        const V t88 = t76 - t81;
        const V t89 = t77 + t80;
        // complex block of 2
        const V t90 = t82 + t86;
        const V t91 = t83 + t87;
        const V t92 = t82 - t86;
        const V t93 = t83 - t87;
        // complex block of 2
        const V t94 = t84 + t89;
        const V t95 = t85 - t88;
        const V t96 = t84 - t89;
        const V t97 = t85 + t88;
        // inner step 1
        const V x5i = io.im(5);
        const V t98 = x5i * w1;
        const V x5r = io.re(5);
        const V t99 = x5r * w0;
        const V t100 = t99 - t98;
        const V t101 = x5i * w0;
        const V t102 = x5r * w1;
        const V t103 = t102 + t101;
        const V x9i = io.im(9);
        const V t104 = x9i * w3;
        const V x9r = io.re(9);
        const V t105 = x9r * w2;
        const V t106 = t105 - t104;
        const V t107 = x9i * w2;
        const V t108 = x9r * w3;
        const V t109 = t108 + t107;
        const V x13i = io.im(13);
        const V t110 = x13i * w5;
        const V x13r = io.re(13);
        const V t111 = x13r * w4;
        const V t112 = t111 - t110;
        const V t113 = x13i * w4;
        const V t114 = x13r * w5;
        const V t115 = t114 + t113;
        const V x17i = io.im(17);
        const V t116 = x17i * w7;
        const V x17r = io.re(17);
        const V t117 = x17r * w6;
        const V t118 = t117 - t116;
        const V t119 = x17i * w6;
        const V t120 = x17r * w7;
        const V t121 = t120 + t119;
        const V x21i = io.im(21);
        const V t122 = x21i * w9;
        const V x21r = io.re(21);
        const V t123 = x21r * w8;
        const V t124 = t123 - t122;
        const V t125 = x21i * w8;
        const V t126 = x21r * w9;
        const V t127 = t126 + t125;
        const V x25i = io.im(25);
        const V t128 = x25i * w11;
        const V x25r = io.re(25);
        const V t129 = x25r * w10;
        const V t130 = t129 - t128;
        const V t131 = x25i * w10;
        const V t132 = x25r * w11;
        const V t133 = t132 + t131;
        const V x29i = io.im(29);
        const V t134 = x29i * w13;
        const V x29r = io.re(29);
        const V t135 = x29r * w12;
        const V t136 = t135 - t134;
        const V t137 = x29i * w12;
        const V t138 = x29r * w13;
        const V t139 = t138 + t137;
        // complex block of 2
        const V x1i = io.im(1);
        const V t140 = x1i + t121;
        const V x1r = io.re(1);
        const V t141 = x1r + t118;
        const V t142 = x1i - t121;
        const V t143 = x1r - t118;
        // complex block of 2
        const V t144 = t103 + t127;
        const V t145 = t100 + t124;
        const V t146 = t103 - t127;
        const V t147 = t100 - t124;
        // complex block of 2
        const V t148 = t109 + t133;
        const V t149 = t106 + t130;
        const V t150 = t109 - t133;
        const V t151 = t106 - t130;
        // complex block of 2
        const V t152 = t115 + t139;
        const V t153 = t112 + t136;
        const V t154 = t115 - t139;
        const V t155 = t112 - t136;
        // complex block of 2
        const V t156 = t140 + t148;
        const V t157 = t141 + t149;
        const V t158 = t140 - t148;
        const V t159 = t141 - t149;
        // complex block of 2
        const V t160 = t144 + t152;
        const V t161 = t145 + t153;
        const V t162 = t144 - t152;
        const V t163 = t145 - t153;
        // complex block of 2
        const V t164 = t156 + t160;
        const V t165 = t157 + t161;
        const V t166 = t156 - t160;
        const V t167 = t157 - t161;
        // complex block of 2
        const V t168 = t158 + t163;
        const V t169 = t159 - t162;
        const V t170 = t158 - t163;
        const V t171 = t159 + t162;
        // complex block of 8
        const V t172 = c[0] * t146;
        const V t173 = c[0] * t147;
        const V t174 = t172 + t173;
        const V t175 = t173 - t172;
        const V t176 = c[0] * t154;
        const V t177 = c[0] * t155;
        const V t178 = t176 + t177;
        const V t179 = t177 - t176;
        // complex block of 2
        const V t180 = t142 + t151;
        const V t181 = t143 - t150;
        const V t182 = t142 - t151;
        const V t183 = t143 + t150;
        // complex block of 2
        const V t184 = t174 + t179;
        const V t185 = t175 - t178;
        const V t186 = t174 - t179;
        const V t187 = t175 + t178;
        // complex block of 2
        const V t188 = t180 + t184;
        const V t189 = t181 + t185;
        const V t190 = t180 - t184;
        const V t191 = t181 - t185;
        // complex block of 2
        const V t192 = t182 + t187;
        const V t193 = t183 - t186;
        const V t194 = t182 - t187;
        const V t195 = t183 + t186;
        // inner step 2
        const V x6i = io.im(6);
        const V t196 = x6i * w1;
        const V x6r = io.re(6);
        const V t197 = x6r * w0;
        const V t198 = t197 - t196;
        const V t199 = x6i * w0;
        const V t200 = x6r * w1;
        const V t201 = t200 + t199;
        const V x10i = io.im(10);
        const V t202 = x10i * w3;
        const V x10r = io.re(10);
        const V t203 = x10r * w2;
        const V t204 = t203 - t202;
        const V t205 = x10i * w2;
        const V t206 = x10r * w3;
        const V t207 = t206 + t205;
        const V x14i = io.im(14);
        const V t208 = x14i * w5;
        const V x14r = io.re(14);
        const V t209 = x14r * w4;
        const V t210 = t209 - t208;
        const V t211 = x14i * w4;
        const V t212 = x14r * w5;
        const V t213 = t212 + t211;
        const V x18i = io.im(18);
        const V t214 = x18i * w7;
        const V x18r = io.re(18);
        const V t215 = x18r * w6;
        const V t216 = t215 - t214;
        const V t217 = x18i * w6;
        const V t218 = x18r * w7;
        const V t219 = t218 + t217;
        const V x22i = io.im(22);
        const V t220 = x22i * w9;
        const V x22r = io.re(22);
        const V t221 = x22r * w8;
        const V t222 = t221 - t220;
        const V t223 = x22i * w8;
        const V t224 = x22r * w9;
        const V t225 = t224 + t223;
        const V x26i = io.im(26);
        const V t226 = x26i * w11;
        const V x26r = io.re(26);
        const V t227 = x26r * w10;
        const V t228 = t227 - t226;
        const V t229 = x26i * w10;
        const V t230 = x26r * w11;
        const V t231 = t230 + t229;
        const V x30i = io.im(30);
        const V t232 = x30i * w13;
        const V x30r = io.re(30);
        const V t233 = x30r * w12;
        const V t234 = t233 - t232;
        const V t235 = x30i * w12;
        const V t236 = x30r * w13;
        const V t237 = t236 + t235;
        // complex block of 2
        const V x2i = io.im(2);
        const V t238 = x2i + t219;
        const V x2r = io.re(2);
        const V t239 = x2r + t216;
        const V t240 = x2i - t219;
        const V t241 = x2r - t216;
        // complex block of 2
        const V t242 = t201 + t225;
        const V t243 = t198 + t222;
        const V t244 = t201 - t225;
        const V t245 = t198 - t222;
        // complex block of 2
        const V t246 = t207 + t231;
        const V t247 = t204 + t228;
        const V t248 = t207 - t231;
        const V t249 = t204 - t228;
        // complex block of 2
        const V t250 = t213 + t237;
        const V t251 = t210 + t234;
        const V t252 = t213 - t237;
        const V t253 = t210 - t234;
        // complex block of 2
        const V t254 = t238 + t246;
        const V t255 = t239 + t247;
        const V t256 = t238 - t246;
        const V t257 = t239 - t247;
        // complex block of 2
        const V t258 = t242 + t250;
        const V t259 = t243 + t251;
        const V t260 = t242 - t250;
        const V t261 = t243 - t251;
        // complex block of 2
        const V t262 = t254 + t258;
        const V t263 = t255 + t259;
        const V t264 = t254 - t258;
        const V t265 = t255 - t259;
        // complex block of 2
        const V t266 = t256 + t261;
        const V t267 = t257 - t260;
        const V t268 = t256 - t261;
        const V t269 = t257 + t260;
        // complex block of 8
        const V t270 = c[0] * t244;
        const V t271 = c[0] * t245;
        const V t272 = t270 + t271;
        const V t273 = t271 - t270;
        const V t274 = c[0] * t252;
        const V t275 = c[0] * t253;
        const V t276 = t274 + t275;
        const V t277 = t275 - t274;
        // complex block of 2
        const V t278 = t240 + t249;
        const V t279 = t241 - t248;
        const V t280 = t240 - t249;
        const V t281 = t241 + t248;
        // complex block of 2
        const V t282 = t272 + t277;
        const V t283 = t273 - t276;
        const V t284 = t272 - t277;
        const V t285 = t273 + t276;
        // complex block of 2
        const V t286 = t278 + t282;
        const V t287 = t279 + t283;
        const V t288 = t278 - t282;
        const V t289 = t279 - t283;
        // complex block of 2
        const V t290 = t280 + t285;
        const V t291 = t281 - t284;
        const V t292 = t280 - t285;
        const V t293 = t281 + t284;
        // inner step 3
        const V x7i = io.im(7);
        const V t294 = x7i * w1;
        const V x7r = io.re(7);
        const V t295 = x7r * w0;
        const V t296 = t295 - t294;
        const V t297 = x7i * w0;
        const V t298 = x7r * w1;
        const V t299 = t298 + t297;
        const V x11i = io.im(11);
        const V t300 = x11i * w3;
        const V x11r = io.re(11);
        const V t301 = x11r * w2;
        const V t302 = t301 - t300;
        const V t303 = x11i * w2;
        const V t304 = x11r * w3;
        const V t305 = t304 + t303;
        const V x15i = io.im(15);
        const V t306 = x15i * w5;
        const V x15r = io.re(15);
        const V t307 = x15r * w4;
        const V t308 = t307 - t306;
        const V t309 = x15i * w4;
        const V t310 = x15r * w5;
        const V t311 = t310 + t309;
        const V x19i = io.im(19);
        const V t312 = x19i * w7;
        const V x19r = io.re(19);
        const V t313 = x19r * w6;
        const V t314 = t313 - t312;
        const V t315 = x19i * w6;
        const V t316 = x19r * w7;
        const V t317 = t316 + t315;
        const V x23i = io.im(23);
        const V t318 = x23i * w9;
        const V x23r = io.re(23);
        const V t319 = x23r * w8;
        const V t320 = t319 - t318;
        const V t321 = x23i * w8;
        const V t322 = x23r * w9;
        const V t323 = t322 + t321;
        const V x27i = io.im(27);
        const V t324 = x27i * w11;
        const V x27r = io.re(27);
        const V t325 = x27r * w10;
        const V t326 = t325 - t324;
        const V t327 = x27i * w10;
        const V t328 = x27r * w11;
        const V t329 = t328 + t327;
        const V x31i = io.im(31);
        const V t330 = x31i * w13;
        const V x31r = io.re(31);
        const V t331 = x31r * w12;
        const V t332 = t331 - t330;
        const V t333 = x31i * w12;
        const V t334 = x31r * w13;
        const V t335 = t334 + t333;
        // complex block of 2
        const V x3i = io.im(3);
        const V t336 = x3i + t317;
        const V x3r = io.re(3);
        const V t337 = x3r + t314;
        const V t338 = x3i - t317;
        const V t339 = x3r - t314;
        // complex block of 2
        const V t340 = t299 + t323;
        const V t341 = t296 + t320;
        const V t342 = t299 - t323;
        const V t343 = t296 - t320;
        // complex block of 2
        const V t344 = t305 + t329;
        const V t345 = t302 + t326;
        const V t346 = t305 - t329;
        const V t347 = t302 - t326;
        // complex block of 2
        const V t348 = t311 + t335;
        const V t349 = t308 + t332;
        const V t350 = t311 - t335;
        const V t351 = t308 - t332;
        // complex block of 2
        const V t352 = t336 + t344;
        const V t353 = t337 + t345;
        const V t354 = t336 - t344;
        const V t355 = t337 - t345;
        // complex block of 2
        const V t356 = t340 + t348;
        const V t357 = t341 + t349;
        const V t358 = t340 - t348;
        const V t359 = t341 - t349;
        // complex block of 2
        const V t360 = t352 + t356;
        const V t361 = t353 + t357;
        const V t362 = t352 - t356;
        const V t363 = t353 - t357;
        // complex block of 2
        const V t364 = t354 + t359;
        const V t365 = t355 - t358;
        const V t366 = t354 - t359;
        const V t367 = t355 + t358;
        // complex block of 8
        const V t368 = c[0] * t342;
        const V t369 = c[0] * t343;
        const V t370 = t368 + t369;
        const V t371 = t369 - t368;
        const V t372 = c[0] * t350;
        const V t373 = c[0] * t351;
        const V t374 = t372 + t373;
        const V t375 = t373 - t372;
        // complex block of 2
        const V t376 = t338 + t347;
        const V t377 = t339 - t346;
        const V t378 = t338 - t347;
        const V t379 = t339 + t346;
        // complex block of 2
        const V t380 = t370 + t375;
        const V t381 = t371 - t374;
        const V t382 = t370 - t375;
        const V t383 = t371 + t374;
        // complex block of 2
        const V t384 = t376 + t380;
        const V t385 = t377 + t381;
        const V t386 = t376 - t380;
        const V t387 = t377 - t381;
        // complex block of 2
        const V t388 = t378 + t383;
        const V t389 = t379 - t382;
        const V t390 = t378 - t383;
        const V t391 = t379 + t382;
        // outer step 0
        const V u1 = io.outer(1);
        const V t392 = t164 * u1;
        const V u0 = io.outer(0);
        const V t393 = t165 * u0;
        const V t394 = t393 - t392;
        const V t395 = t164 * u0;
        const V t396 = t165 * u1;
        const V t397 = t396 + t395;
        const V u3 = io.outer(3);
        const V t398 = t262 * u3;
        const V u2 = io.outer(2);
        const V t399 = t263 * u2;
        const V t400 = t399 - t398;
        const V t401 = t262 * u2;
        const V t402 = t263 * u3;
        const V t403 = t402 + t401;
        const V u5 = io.outer(5);
        const V t404 = t360 * u5;
        const V u4 = io.outer(4);
        const V t405 = t361 * u4;
        const V t406 = t405 - t404;
        const V t407 = t360 * u4;
        const V t408 = t361 * u5;
        const V t409 = t408 + t407;
        // complex block of 2
        const V t410 = t66 + t403;
        const V t411 = t67 + t400;
        const V t412 = t66 - t403;
        const V t413 = t67 - t400;
        // complex block of 2
        const V t414 = t397 + t409;
        const V t415 = t394 + t406;
        const V t416 = t397 - t409;
        const V t417 = t394 - t406;
        // complex block of 2
        const V t418 = t410 + t414;
        const V t419 = t411 + t415;
        const V t420 = t411 - t415;
        // complex block of 2
        const V t421 = t412 + t417;
        const V t422 = t413 - t416;
        const V t423 = t413 + t416;
        // outer step 1
        const V u7 = io.outer(7);
        const V t424 = t188 * u7;
        const V u6 = io.outer(6);
        const V t425 = t189 * u6;
        const V t426 = t425 - t424;
        const V t427 = t188 * u6;
        const V t428 = t189 * u7;
        const V t429 = t428 + t427;
        const V u9 = io.outer(9);
        const V t430 = t286 * u9;
        const V u8 = io.outer(8);
        const V t431 = t287 * u8;
        const V t432 = t431 - t430;
        const V t433 = t286 * u8;
        const V t434 = t287 * u9;
        const V t435 = t434 + t433;
        const V u11 = io.outer(11);
        const V t436 = t384 * u11;
        const V u10 = io.outer(10);
        const V t437 = t385 * u10;
        const V t438 = t437 - t436;
        const V t439 = t384 * u10;
        const V t440 = t385 * u11;
        const V t441 = t440 + t439;
        // complex block of 2
        const V t442 = t90 + t435;
        const V t443 = t91 + t432;
        const V t444 = t90 - t435;
        const V t445 = t91 - t432;
        // complex block of 2
        const V t446 = t429 + t441;
        const V t447 = t426 + t438;
        const V t448 = t429 - t441;
        const V t449 = t426 - t438;
        // complex block of 2
        const V t450 = t442 + t446;
        const V t451 = t443 + t447;
        const V t452 = t443 - t447;
        // complex block of 2
        const V t453 = t444 + t449;
        const V t454 = t445 - t448;
        const V t455 = t445 + t448;
        // outer step 2
        const V u13 = io.outer(13);
        const V t456 = t168 * u13;
        const V u12 = io.outer(12);
        const V t457 = t169 * u12;
        const V t458 = t457 - t456;
        const V t459 = t168 * u12;
        const V t460 = t169 * u13;
        const V t461 = t460 + t459;
        const V u15 = io.outer(15);
        const V t462 = t266 * u15;
        const V u14 = io.outer(14);
        const V t463 = t267 * u14;
        const V t464 = t463 - t462;
        const V t465 = t266 * u14;
        const V t466 = t267 * u15;
        const V t467 = t466 + t465;
        const V u17 = io.outer(17);
        const V t468 = t364 * u17;
        const V u16 = io.outer(16);
        const V t469 = t365 * u16;
        const V t470 = t469 - t468;
        const V t471 = t364 * u16;
        const V t472 = t365 * u17;
        const V t473 = t472 + t471;
        // complex block of 2
        const V t474 = t70 + t467;
        const V t475 = t71 + t464;
        const V t476 = t70 - t467;
        const V t477 = t71 - t464;
        // complex block of 2
        const V t478 = t461 + t473;
        const V t479 = t458 + t470;
        const V t480 = t461 - t473;
        const V t481 = t458 - t470;
        // complex block of 2
        const V t482 = t474 + t478;
        const V t483 = t475 + t479;
        const V t484 = t475 - t479;
        // complex block of 2
        const V t485 = t476 + t481;
        const V t486 = t477 - t480;
        const V t487 = t477 + t480;
        // outer step 3
        const V u19 = io.outer(19);
        const V t488 = t192 * u19;
        const V u18 = io.outer(18);
        const V t489 = t193 * u18;
        const V t490 = t489 - t488;
        const V t491 = t192 * u18;
        const V t492 = t193 * u19;
        const V t493 = t492 + t491;
        const V u21 = io.outer(21);
        const V t494 = t290 * u21;
        const V u20 = io.outer(20);
        const V t495 = t291 * u20;
        const V t496 = t495 - t494;
        const V t497 = t290 * u20;
        const V t498 = t291 * u21;
        const V t499 = t498 + t497;
        const V u23 = io.outer(23);
        const V t500 = t388 * u23;
        const V u22 = io.outer(22);
        const V t501 = t389 * u22;
        const V t502 = t501 - t500;
        const V t503 = t388 * u22;
        const V t504 = t389 * u23;
        const V t505 = t504 + t503;
        // complex block of 2
        const V t506 = t94 + t499;
        const V t507 = t95 + t496;
        const V t508 = t94 - t499;
        const V t509 = t95 - t496;
        // complex block of 2
        const V t510 = t493 + t505;
        const V t511 = t490 + t502;
        const V t512 = t493 - t505;
        const V t513 = t490 - t502;
        // complex block of 2
        const V t514 = t506 + t510;
        const V t515 = t507 + t511;
        const V t516 = t507 - t511;
        // complex block of 2
        const V t517 = t508 + t513;
        const V t518 = t509 - t512;
        const V t519 = t509 + t512;
        // outer step 4
        const V u25 = io.outer(25);
        const V t520 = t166 * u25;
        const V u24 = io.outer(24);
        const V t521 = t167 * u24;
        const V t522 = t521 - t520;
        const V t523 = t166 * u24;
        const V t524 = t167 * u25;
        const V t525 = t524 + t523;
        const V u27 = io.outer(27);
        const V t526 = t264 * u27;
        const V u26 = io.outer(26);
        const V t527 = t265 * u26;
        const V t528 = t527 - t526;
        const V t529 = t264 * u26;
        const V t530 = t265 * u27;
        const V t531 = t530 + t529;
        const V u29 = io.outer(29);
        const V t532 = t362 * u29;
        const V u28 = io.outer(28);
        const V t533 = t363 * u28;
        const V t534 = t533 - t532;
        const V t535 = t362 * u28;
        const V t536 = t363 * u29;
        const V t537 = t536 + t535;
        // complex block of 2
        const V t538 = t68 + t531;
        const V t539 = t69 + t528;
        const V t540 = t68 - t531;
        const V t541 = t69 - t528;
        // complex block of 2
        const V t542 = t525 + t537;
        const V t543 = t522 + t534;
        const V t544 = t525 - t537;
        const V t545 = t522 - t534;
        // complex block of 2
        const V t546 = t538 + t542;
        const V t547 = t539 + t543;
        const V t548 = t539 - t543;
        // complex block of 2
        const V t549 = t540 + t545;
        const V t550 = t541 - t544;
        const V t551 = t541 + t544;
        // outer step 5
        const V u31 = io.outer(31);
        const V t552 = t190 * u31;
        const V u30 = io.outer(30);
        const V t553 = t191 * u30;
        const V t554 = t553 - t552;
        const V t555 = t190 * u30;
        const V t556 = t191 * u31;
        const V t557 = t556 + t555;
        const V u33 = io.outer(33);
        const V t558 = t288 * u33;
        const V u32 = io.outer(32);
        const V t559 = t289 * u32;
        const V t560 = t559 - t558;
        const V t561 = t288 * u32;
        const V t562 = t289 * u33;
        const V t563 = t562 + t561;
        const V u35 = io.outer(35);
        const V t564 = t386 * u35;
        const V u34 = io.outer(34);
        const V t565 = t387 * u34;
        const V t566 = t565 - t564;
        const V t567 = t386 * u34;
        const V t568 = t387 * u35;
        const V t569 = t568 + t567;
        // complex block of 2
        const V t570 = t92 + t563;
        const V t571 = t93 + t560;
        const V t572 = t92 - t563;
        const V t573 = t93 - t560;
        // complex block of 2
        const V t574 = t557 + t569;
        const V t575 = t554 + t566;
        const V t576 = t557 - t569;
        const V t577 = t554 - t566;
        // complex block of 2
        const V t578 = t570 + t574;
        const V t579 = t571 + t575;
        const V t580 = t571 - t575;
        // complex block of 2
        const V t581 = t572 + t577;
        const V t582 = t573 - t576;
        const V t583 = t573 + t576;
        // outer step 6
        const V u37 = io.outer(37);
        const V t584 = t170 * u37;
        const V u36 = io.outer(36);
        const V t585 = t171 * u36;
        const V t586 = t585 - t584;
        const V t587 = t170 * u36;
        const V t588 = t171 * u37;
        const V t589 = t588 + t587;
        const V u39 = io.outer(39);
        const V t590 = t268 * u39;
        const V u38 = io.outer(38);
        const V t591 = t269 * u38;
        const V t592 = t591 - t590;
        const V t593 = t268 * u38;
        const V t594 = t269 * u39;
        const V t595 = t594 + t593;
        const V u41 = io.outer(41);
        const V t596 = t366 * u41;
        const V u40 = io.outer(40);
        const V t597 = t367 * u40;
        const V t598 = t597 - t596;
        const V t599 = t366 * u40;
        const V t600 = t367 * u41;
        const V t601 = t600 + t599;
        // complex block of 2
        const V t602 = t72 + t595;
        const V t603 = t73 + t592;
        const V t604 = t72 - t595;
        const V t605 = t73 - t592;
        // complex block of 2
        const V t606 = t589 + t601;
        const V t607 = t586 + t598;
        const V t608 = t589 - t601;
        const V t609 = t586 - t598;
        // complex block of 2
        const V t610 = t602 + t606;
        const V t611 = t603 + t607;
        const V t612 = t603 - t607;
        // complex block of 2
        const V t613 = t604 + t609;
        const V t614 = t605 - t608;
        const V t615 = t605 + t608;
        // outer step 7
        const V u43 = io.outer(43);
        const V t616 = t194 * u43;
        const V u42 = io.outer(42);
        const V t617 = t195 * u42;
        const V t618 = t617 - t616;
        const V t619 = t194 * u42;
        const V t620 = t195 * u43;
        const V t621 = t620 + t619;
        const V u45 = io.outer(45);
        const V t622 = t292 * u45;
        const V u44 = io.outer(44);
        const V t623 = t293 * u44;
        const V t624 = t623 - t622;
        const V t625 = t292 * u44;
        const V t626 = t293 * u45;
        const V t627 = t626 + t625;
        const V u47 = io.outer(47);
        const V t628 = t390 * u47;
        const V u46 = io.outer(46);
        io.im(0, t418);
        io.re(0, t419);
        io.re(16, t420);
        io.im(8, t421);
        io.re(8, t422);
        io.re(24, t423);
        io.im(1, t450);
        io.re(1, t451);
        io.re(17, t452);
        io.im(9, t453);
        io.re(9, t454);
        io.re(25, t455);
        io.im(2, t482);
        io.re(2, t483);
        io.re(18, t484);
        io.im(10, t485);
        io.re(10, t486);
        io.re(26, t487);
        io.im(3, t514);
        io.re(3, t515);
        io.re(19, t516);
        io.im(11, t517);
        io.re(11, t518);
        io.re(27, t519);
        io.im(4, t546);
        io.re(4, t547);
        io.re(20, t548);
        io.im(12, t549);
        io.re(12, t550);
        io.re(28, t551);
        io.im(5, t578);
        io.re(5, t579);
        io.re(21, t580);
        io.im(13, t581);
        io.re(13, t582);
        io.re(29, t583);
        io.im(6, t610);
        io.re(6, t611);
        io.re(22, t612);
        io.im(14, t613);
        io.re(14, t614);
        io.re(30, t615);
        const V t629 = t391 * u46;
        const V t630 = t629 - t628;
        const V t631 = t390 * u46;
        const V t632 = t391 * u47;
        const V t633 = t632 + t631;
        // complex block of 2
        const V t634 = t96 + t627;
        const V t635 = t97 + t624;
        const V t636 = t96 - t627;
        const V t637 = t97 - t624;
        // complex block of 2
        const V t638 = t621 + t633;
        const V t639 = t618 + t630;
        const V t640 = t621 - t633;
        const V t641 = t618 - t630;
        // complex block of 2
        const V t642 = t634 + t638;
        io.im(7, t642);
        const V t643 = t635 + t639;
        io.re(7, t643);
        const V t644 = t635 - t639;
        io.re(23, t644);
        // complex block of 2
        const V t645 = t636 + t641;
        io.im(15, t645);
        const V t646 = t637 - t640;
        io.re(15, t646);
        const V t647 = t637 + t640;
        io.re(31, t647);
        const V t648 = t414 - t410;
        io.im(16, t648);
        const V t649 = t446 - t442;
        io.im(17, t649);
        const V t650 = t478 - t474;
        io.im(18, t650);
        const V t651 = t510 - t506;
        io.im(19, t651);
        const V t652 = t542 - t538;
        io.im(20, t652);
        const V t653 = t574 - t570;
        io.im(21, t653);
        const V t654 = t606 - t602;
        io.im(22, t654);
        const V t655 = t638 - t634;
        io.im(23, t655);
        const V t656 = t417 - t412;
        io.im(24, t656);
        const V t657 = t449 - t444;
        io.im(25, t657);
        const V t658 = t481 - t476;
        io.im(26, t658);
        const V t659 = t513 - t508;
        io.im(27, t659);
        const V t660 = t545 - t540;
        io.im(28, t660);
        const V t661 = t577 - t572;
        io.im(29, t661);
        const V t662 = t609 - t604;
        io.im(30, t662);
        const V t663 = t641 - t636;
        io.im(31, t663);
    }
};

}  // namespace zulg
