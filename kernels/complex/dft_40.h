// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 40.
// Complex DFT of 40 points, prime-factor, order 5, 8.
// 274 additions, 242 subtractions, 148 multiplications (228 with `scale`); 5 constants; 88 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<40> {
    static constexpr int steps = 744;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 5, multiplier 3
        const V x8r = io.re(8);
        const V x32r = io.re(32);
        const V t0 = x8r + x32r;
        const V x8i = io.im(8);
        const V x32i = io.im(32);
        const V t1 = x8i + x32i;
        const V t2 = x8r - x32r;
        const V t3 = x8i - x32i;
        const V x24r = io.re(24);
        const V x16r = io.re(16);
        const V t4 = x24r + x16r;
        const V x24i = io.im(24);
        const V x16i = io.im(16);
        const V t5 = x24i + x16i;
        const V t6 = x24r - x16r;
        const V t7 = x24i - x16i;
        const V t8 = t0 + t4;
        const V t9 = t1 + t5;
        const V x0r = io.re(0);
        const V t10 = t8 + x0r;
        const V x0i = io.im(0);
        const V t11 = t9 + x0i;
        const V t12 = c[0] * t0;
        const V t13 = c[1] * t4;
        const V t14 = t12 - t13;
        const V t15 = t14 + x0r;
        const V t16 = c[0] * t1;
        const V t17 = c[1] * t5;
        const V t18 = t16 - t17;
        const V t19 = t18 + x0i;
        const V t20 = c[2] * t2;
        const V t21 = c[3] * t6;
        const V t22 = t20 - t21;
        const V t23 = c[2] * t3;
        const V t24 = c[3] * t7;
        const V t25 = t23 - t24;
        const V t26 = t15 + t25;
        const V t27 = t19 - t22;
        const V t28 = t15 - t25;
        const V t29 = t19 + t22;
        const V t30 = c[1] * t0;
        const V t31 = x0r - t30;
        const V t32 = c[0] * t4;
        const V t33 = t31 + t32;
        const V t34 = c[1] * t1;
        const V t35 = x0i - t34;
        const V t36 = c[0] * t5;
        const V t37 = t35 + t36;
        const V t38 = c[3] * t2;
        const V t39 = c[2] * t6;
        const V t40 = t38 + t39;
        const V t41 = c[3] * t3;
        const V t42 = c[2] * t7;
        const V t43 = t41 + t42;
        const V t44 = t33 + t43;
        const V t45 = t37 - t40;
        const V t46 = t33 - t43;
        const V t47 = t37 + t40;
        // complex block of 5, multiplier 3
        const V x13r = io.re(13);
        const V x37r = io.re(37);
        const V t48 = x13r + x37r;
        const V x13i = io.im(13);
        const V x37i = io.im(37);
        const V t49 = x13i + x37i;
        const V t50 = x13r - x37r;
        const V t51 = x13i - x37i;
        const V x29r = io.re(29);
        const V x21r = io.re(21);
        const V t52 = x29r + x21r;
        const V x29i = io.im(29);
        const V x21i = io.im(21);
        const V t53 = x29i + x21i;
        const V t54 = x29r - x21r;
        const V t55 = x29i - x21i;
        const V t56 = t48 + t52;
        const V t57 = t49 + t53;
        const V x5r = io.re(5);
        const V t58 = t56 + x5r;
        const V x5i = io.im(5);
        const V t59 = t57 + x5i;
        const V t60 = c[0] * t48;
        const V t61 = c[1] * t52;
        const V t62 = t60 - t61;
        const V t63 = t62 + x5r;
        const V t64 = c[0] * t49;
        const V t65 = c[1] * t53;
        const V t66 = t64 - t65;
        const V t67 = t66 + x5i;
        const V t68 = c[2] * t50;
        const V t69 = c[3] * t54;
        const V t70 = t68 - t69;
        const V t71 = c[2] * t51;
        const V t72 = c[3] * t55;
        const V t73 = t71 - t72;
        const V t74 = t63 + t73;
        const V t75 = t67 - t70;
        const V t76 = t63 - t73;
        const V t77 = t67 + t70;
        const V t78 = c[1] * t48;
        const V t79 = x5r - t78;
        const V t80 = c[0] * t52;
        const V t81 = t79 + t80;
        const V t82 = c[1] * t49;
        const V t83 = x5i - t82;
        const V t84 = c[0] * t53;
        const V t85 = t83 + t84;
        const V t86 = c[3] * t50;
        const V t87 = c[2] * t54;
        const V t88 = t86 + t87;
        const V t89 = c[3] * t51;
        const V t90 = c[2] * t55;
        const V t91 = t89 + t90;
        const V t92 = t81 + t91;
        const V t93 = t85 - t88;
        const V t94 = t81 - t91;
        const V t95 = t85 + t88;
        // complex block of 5, multiplier 3
        const V x18r = io.re(18);
        const V x2r = io.re(2);
        const V t96 = x18r + x2r;
        const V x18i = io.im(18);
        const V x2i = io.im(2);
        const V t97 = x18i + x2i;
        const V t98 = x18r - x2r;
        const V t99 = x18i - x2i;
        const V x34r = io.re(34);
        const V x26r = io.re(26);
        const V t100 = x34r + x26r;
        const V x34i = io.im(34);
        const V x26i = io.im(26);
        const V t101 = x34i + x26i;
        const V t102 = x34r - x26r;
        const V t103 = x34i - x26i;
        const V t104 = t96 + t100;
        const V t105 = t97 + t101;
        const V x10r = io.re(10);
        const V t106 = t104 + x10r;
        const V x10i = io.im(10);
        const V t107 = t105 + x10i;
        const V t108 = c[0] * t96;
        const V t109 = c[1] * t100;
        const V t110 = t108 - t109;
        const V t111 = t110 + x10r;
        const V t112 = c[0] * t97;
        const V t113 = c[1] * t101;
        const V t114 = t112 - t113;
        const V t115 = t114 + x10i;
        const V t116 = c[2] * t98;
        const V t117 = c[3] * t102;
        const V t118 = t116 - t117;
        const V t119 = c[2] * t99;
        const V t120 = c[3] * t103;
        const V t121 = t119 - t120;
        const V t122 = t111 + t121;
        const V t123 = t115 - t118;
        const V t124 = t111 - t121;
        const V t125 = t115 + t118;
        const V t126 = c[1] * t96;
        const V t127 = x10r - t126;
        const V t128 = c[0] * t100;
        const V t129 = t127 + t128;
        const V t130 = c[1] * t97;
        const V t131 = x10i - t130;
        const V t132 = c[0] * t101;
        const V t133 = t131 + t132;
        const V t134 = c[3] * t98;
        const V t135 = c[2] * t102;
        const V t136 = t134 + t135;
        const V t137 = c[3] * t99;
        const V t138 = c[2] * t103;
        const V t139 = t137 + t138;
        const V t140 = t129 + t139;
        const V t141 = t133 - t136;
        const V t142 = t129 - t139;
        const V t143 = t133 + t136;
        // complex block of 5, multiplier 3
        const V x23r = io.re(23);
        const V x7r = io.re(7);
        const V t144 = x23r + x7r;
        const V x23i = io.im(23);
        const V x7i = io.im(7);
        const V t145 = x23i + x7i;
        const V t146 = x23r - x7r;
        const V t147 = x23i - x7i;
        const V x39r = io.re(39);
        const V x31r = io.re(31);
        const V t148 = x39r + x31r;
        const V x39i = io.im(39);
        const V x31i = io.im(31);
        const V t149 = x39i + x31i;
        const V t150 = x39r - x31r;
        const V t151 = x39i - x31i;
        const V t152 = t144 + t148;
        const V t153 = t145 + t149;
        const V x15r = io.re(15);
        const V t154 = t152 + x15r;
        const V x15i = io.im(15);
        const V t155 = t153 + x15i;
        const V t156 = c[0] * t144;
        const V t157 = c[1] * t148;
        const V t158 = t156 - t157;
        const V t159 = t158 + x15r;
        const V t160 = c[0] * t145;
        const V t161 = c[1] * t149;
        const V t162 = t160 - t161;
        const V t163 = t162 + x15i;
        const V t164 = c[2] * t146;
        const V t165 = c[3] * t150;
        const V t166 = t164 - t165;
        const V t167 = c[2] * t147;
        const V t168 = c[3] * t151;
        const V t169 = t167 - t168;
        const V t170 = t159 + t169;
        const V t171 = t163 - t166;
        const V t172 = t159 - t169;
        const V t173 = t163 + t166;
        const V t174 = c[1] * t144;
        const V t175 = x15r - t174;
        const V t176 = c[0] * t148;
        const V t177 = t175 + t176;
        const V t178 = c[1] * t145;
        const V t179 = x15i - t178;
        const V t180 = c[0] * t149;
        const V t181 = t179 + t180;
        const V t182 = c[3] * t146;
        const V t183 = c[2] * t150;
        const V t184 = t182 + t183;
        const V t185 = c[3] * t147;
        const V t186 = c[2] * t151;
        const V t187 = t185 + t186;
        const V t188 = t177 + t187;
        const V t189 = t181 - t184;
        const V t190 = t177 - t187;
        const V t191 = t181 + t184;
        // complex block of 5, multiplier 3
        const V x28r = io.re(28);
        const V x12r = io.re(12);
        const V t192 = x28r + x12r;
        const V x28i = io.im(28);
        const V x12i = io.im(12);
        const V t193 = x28i + x12i;
        const V t194 = x28r - x12r;
        const V t195 = x28i - x12i;
        const V x4r = io.re(4);
        const V x36r = io.re(36);
        const V t196 = x4r + x36r;
        const V x4i = io.im(4);
        const V x36i = io.im(36);
        const V t197 = x4i + x36i;
        const V t198 = x4r - x36r;
        const V t199 = x4i - x36i;
        const V t200 = t192 + t196;
        const V t201 = t193 + t197;
        const V x20r = io.re(20);
        const V t202 = t200 + x20r;
        const V x20i = io.im(20);
        const V t203 = t201 + x20i;
        const V t204 = c[0] * t192;
        const V t205 = c[1] * t196;
        const V t206 = t204 - t205;
        const V t207 = t206 + x20r;
        const V t208 = c[0] * t193;
        const V t209 = c[1] * t197;
        const V t210 = t208 - t209;
        const V t211 = t210 + x20i;
        const V t212 = c[2] * t194;
        const V t213 = c[3] * t198;
        const V t214 = t212 - t213;
        const V t215 = c[2] * t195;
        const V t216 = c[3] * t199;
        const V t217 = t215 - t216;
        const V t218 = t207 + t217;
        const V t219 = t211 - t214;
        const V t220 = t207 - t217;
        const V t221 = t211 + t214;
        const V t222 = c[1] * t192;
        const V t223 = x20r - t222;
        const V t224 = c[0] * t196;
        const V t225 = t223 + t224;
        const V t226 = c[1] * t193;
        const V t227 = x20i - t226;
        const V t228 = c[0] * t197;
        const V t229 = t227 + t228;
        const V t230 = c[3] * t194;
        const V t231 = c[2] * t198;
        const V t232 = t230 + t231;
        const V t233 = c[3] * t195;
        const V t234 = c[2] * t199;
        const V t235 = t233 + t234;
        const V t236 = t225 + t235;
        const V t237 = t229 - t232;
        const V t238 = t225 - t235;
        const V t239 = t229 + t232;
        // complex block of 5, multiplier 3
        const V x33r = io.re(33);
        const V x17r = io.re(17);
        const V t240 = x33r + x17r;
        const V x33i = io.im(33);
        const V x17i = io.im(17);
        const V t241 = x33i + x17i;
        const V t242 = x33r - x17r;
        const V t243 = x33i - x17i;
        const V x9r = io.re(9);
        const V x1r = io.re(1);
        const V t244 = x9r + x1r;
        const V x9i = io.im(9);
        const V x1i = io.im(1);
        const V t245 = x9i + x1i;
        const V t246 = x9r - x1r;
        const V t247 = x9i - x1i;
        const V t248 = t240 + t244;
        const V t249 = t241 + t245;
        const V x25r = io.re(25);
        const V t250 = t248 + x25r;
        const V x25i = io.im(25);
        const V t251 = t249 + x25i;
        const V t252 = c[0] * t240;
        const V t253 = c[1] * t244;
        const V t254 = t252 - t253;
        const V t255 = t254 + x25r;
        const V t256 = c[0] * t241;
        const V t257 = c[1] * t245;
        const V t258 = t256 - t257;
        const V t259 = t258 + x25i;
        const V t260 = c[2] * t242;
        const V t261 = c[3] * t246;
        const V t262 = t260 - t261;
        const V t263 = c[2] * t243;
        const V t264 = c[3] * t247;
        const V t265 = t263 - t264;
        const V t266 = t255 + t265;
        const V t267 = t259 - t262;
        const V t268 = t255 - t265;
        const V t269 = t259 + t262;
        const V t270 = c[1] * t240;
        const V t271 = x25r - t270;
        const V t272 = c[0] * t244;
        const V t273 = t271 + t272;
        const V t274 = c[1] * t241;
        const V t275 = x25i - t274;
        const V t276 = c[0] * t245;
        const V t277 = t275 + t276;
        const V t278 = c[3] * t242;
        const V t279 = c[2] * t246;
        const V t280 = t278 + t279;
        const V t281 = c[3] * t243;
        const V t282 = c[2] * t247;
        const V t283 = t281 + t282;
        const V t284 = t273 + t283;
        const V t285 = t277 - t280;
        const V t286 = t273 - t283;
        const V t287 = t277 + t280;
        // complex block of 5, multiplier 3
        const V x38r = io.re(38);
        const V x22r = io.re(22);
        const V t288 = x38r + x22r;
        const V x38i = io.im(38);
        const V x22i = io.im(22);
        const V t289 = x38i + x22i;
        const V t290 = x38r - x22r;
        const V t291 = x38i - x22i;
        const V x14r = io.re(14);
        const V x6r = io.re(6);
        const V t292 = x14r + x6r;
        const V x14i = io.im(14);
        const V x6i = io.im(6);
        const V t293 = x14i + x6i;
        const V t294 = x14r - x6r;
        const V t295 = x14i - x6i;
        const V t296 = t288 + t292;
        const V t297 = t289 + t293;
        const V x30r = io.re(30);
        const V t298 = t296 + x30r;
        const V x30i = io.im(30);
        const V t299 = t297 + x30i;
        const V t300 = c[0] * t288;
        const V t301 = c[1] * t292;
        const V t302 = t300 - t301;
        const V t303 = t302 + x30r;
        const V t304 = c[0] * t289;
        const V t305 = c[1] * t293;
        const V t306 = t304 - t305;
        const V t307 = t306 + x30i;
        const V t308 = c[2] * t290;
        const V t309 = c[3] * t294;
        const V t310 = t308 - t309;
        const V t311 = c[2] * t291;
        const V t312 = c[3] * t295;
        const V t313 = t311 - t312;
        const V t314 = t303 + t313;
        const V t315 = t307 - t310;
        const V t316 = t303 - t313;
        const V t317 = t307 + t310;
        const V t318 = c[1] * t288;
        const V t319 = x30r - t318;
        const V t320 = c[0] * t292;
        const V t321 = t319 + t320;
        const V t322 = c[1] * t289;
        const V t323 = x30i - t322;
        const V t324 = c[0] * t293;
        const V t325 = t323 + t324;
        const V t326 = c[3] * t290;
        const V t327 = c[2] * t294;
        const V t328 = t326 + t327;
        const V t329 = c[3] * t291;
        const V t330 = c[2] * t295;
        const V t331 = t329 + t330;
        const V t332 = t321 + t331;
        const V t333 = t325 - t328;
        const V t334 = t321 - t331;
        const V t335 = t325 + t328;
        // complex block of 5, multiplier 3
        const V x3r = io.re(3);
        const V x27r = io.re(27);
        const V t336 = x3r + x27r;
        const V x3i = io.im(3);
        const V x27i = io.im(27);
        const V t337 = x3i + x27i;
        const V t338 = x3r - x27r;
        const V t339 = x3i - x27i;
        const V x19r = io.re(19);
        const V x11r = io.re(11);
        const V t340 = x19r + x11r;
        const V x19i = io.im(19);
        const V x11i = io.im(11);
        const V t341 = x19i + x11i;
        const V t342 = x19r - x11r;
        const V t343 = x19i - x11i;
        const V t344 = t336 + t340;
        const V t345 = t337 + t341;
        const V x35r = io.re(35);
        const V t346 = t344 + x35r;
        const V x35i = io.im(35);
        const V t347 = t345 + x35i;
        const V t348 = c[0] * t336;
        const V t349 = c[1] * t340;
        const V t350 = t348 - t349;
        const V t351 = t350 + x35r;
        const V t352 = c[0] * t337;
        const V t353 = c[1] * t341;
        const V t354 = t352 - t353;
        const V t355 = t354 + x35i;
        const V t356 = c[2] * t338;
        const V t357 = c[3] * t342;
        const V t358 = t356 - t357;
        const V t359 = c[2] * t339;
        const V t360 = c[3] * t343;
        const V t361 = t359 - t360;
        const V t362 = t351 + t361;
        const V t363 = t355 - t358;
        const V t364 = t351 - t361;
        const V t365 = t355 + t358;
        const V t366 = c[1] * t336;
        const V t367 = x35r - t366;
        const V t368 = c[0] * t340;
        const V t369 = t367 + t368;
        const V t370 = c[1] * t337;
        const V t371 = x35i - t370;
        const V t372 = c[0] * t341;
        const V t373 = t371 + t372;
        const V t374 = c[3] * t338;
        const V t375 = c[2] * t342;
        const V t376 = t374 + t375;
        const V t377 = c[3] * t339;
        const V t378 = c[2] * t343;
        const V t379 = t377 + t378;
        const V t380 = t369 + t379;
        const V t381 = t373 - t376;
        const V t382 = t369 - t379;
        const V t383 = t373 + t376;
        // complex block of 2
        const V t384 = t10 + t202;
        const V t385 = t11 + t203;
        const V t386 = t10 - t202;
        const V t387 = t11 - t203;
        // complex block of 2
        const V t388 = t58 + t250;
        const V t389 = t59 + t251;
        const V t390 = t58 - t250;
        const V t391 = t59 - t251;
        // complex block of 2
        const V t392 = t106 + t298;
        const V t393 = t107 + t299;
        const V t394 = t106 - t298;
        const V t395 = t107 - t299;
        // complex block of 2
        const V t396 = t154 + t346;
        const V t397 = t155 + t347;
        const V t398 = t154 - t346;
        const V t399 = t155 - t347;
        // complex block of 2
        const V t400 = t384 + t392;
        const V t401 = t385 + t393;
        const V t402 = t384 - t392;
        const V t403 = t385 - t393;
        // complex block of 2
        const V t404 = t388 + t396;
        const V t405 = t389 + t397;
        const V t406 = t388 - t396;
        const V t407 = t389 - t397;
        // complex block of 2
        const V t408 = t400 + t404;
        io.re(0, t408);
        const V t409 = t401 + t405;
        io.im(0, t409);
        const V t410 = t400 - t404;
        io.re(20, t410);
        const V t411 = t401 - t405;
        io.im(20, t411);
        // complex block of 2
        const V t412 = t402 + t407;
        io.re(10, t412);
        const V t413 = t403 - t406;
        io.im(10, t413);
        const V t414 = t402 - t407;
        io.re(30, t414);
        const V t415 = t403 + t406;
        io.im(30, t415);
        // complex block of 8, multiplier 5
        const V t416 = c[4] * t390;
        const V t417 = c[4] * t391;
        const V t418 = t416 + t417;
        const V t419 = t417 - t416;
        const V t420 = c[4] * t398;
        const V t421 = c[4] * t399;
        const V t422 = t420 + t421;
        const V t423 = t421 - t420;
        // complex block of 2
        const V t424 = t386 + t395;
        const V t425 = t387 - t394;
        const V t426 = t386 - t395;
        const V t427 = t387 + t394;
        // complex block of 2
        const V t428 = t418 + t423;
        const V t429 = t422 - t419;
        const V t430 = t423 - t418;
        const V t431 = t419 + t422;
        // complex block of 2
        const V t432 = t424 - t428;
        io.re(5, t432);
        const V t433 = t425 + t429;
        io.im(5, t433);
        const V t434 = t424 + t428;
        io.re(25, t434);
        const V t435 = t425 - t429;
        io.im(25, t435);
        // complex block of 2
        const V t436 = t426 - t431;
        io.re(15, t436);
        const V t437 = t427 - t430;
        io.im(15, t437);
        const V t438 = t426 + t431;
        io.re(35, t438);
        const V t439 = t427 + t430;
        io.im(35, t439);
        // complex block of 2
        const V t440 = t46 + t238;
        const V t441 = t47 + t239;
        const V t442 = t46 - t238;
        const V t443 = t47 - t239;
        // complex block of 2
        const V t444 = t94 + t286;
        const V t445 = t95 + t287;
        const V t446 = t94 - t286;
        const V t447 = t95 - t287;
        // complex block of 2
        const V t448 = t142 + t334;
        const V t449 = t143 + t335;
        const V t450 = t142 - t334;
        const V t451 = t143 - t335;
        // complex block of 2
        const V t452 = t190 + t382;
        const V t453 = t191 + t383;
        const V t454 = t190 - t382;
        const V t455 = t191 - t383;
        // complex block of 2
        const V t456 = t440 + t448;
        const V t457 = t441 + t449;
        const V t458 = t440 - t448;
        const V t459 = t441 - t449;
        // complex block of 2
        const V t460 = t444 + t452;
        const V t461 = t445 + t453;
        const V t462 = t444 - t452;
        const V t463 = t445 - t453;
        // complex block of 2
        const V t464 = t456 + t460;
        io.re(8, t464);
        const V t465 = t457 + t461;
        io.im(8, t465);
        const V t466 = t456 - t460;
        io.re(28, t466);
        const V t467 = t457 - t461;
        io.im(28, t467);
        // complex block of 2
        const V t468 = t458 + t463;
        io.re(18, t468);
        const V t469 = t459 - t462;
        io.im(18, t469);
        const V t470 = t458 - t463;
        io.re(38, t470);
        const V t471 = t459 + t462;
        io.im(38, t471);
        // complex block of 8, multiplier 5
        const V t472 = c[4] * t446;
        const V t473 = c[4] * t447;
        const V t474 = t472 + t473;
        const V t475 = t473 - t472;
        const V t476 = c[4] * t454;
        const V t477 = c[4] * t455;
        const V t478 = t476 + t477;
        const V t479 = t477 - t476;
        // complex block of 2
        const V t480 = t442 + t451;
        const V t481 = t443 - t450;
        const V t482 = t442 - t451;
        const V t483 = t443 + t450;
        // complex block of 2
        const V t484 = t474 + t479;
        const V t485 = t478 - t475;
        const V t486 = t479 - t474;
        const V t487 = t475 + t478;
        // complex block of 2
        const V t488 = t480 - t484;
        io.re(13, t488);
        const V t489 = t481 + t485;
        io.im(13, t489);
        const V t490 = t480 + t484;
        io.re(33, t490);
        const V t491 = t481 - t485;
        io.im(33, t491);
        // complex block of 2
        const V t492 = t482 - t487;
        io.re(23, t492);
        const V t493 = t483 - t486;
        io.im(23, t493);
        const V t494 = t482 + t487;
        io.re(3, t494);
        const V t495 = t483 + t486;
        io.im(3, t495);
        // complex block of 2
        const V t496 = t26 + t218;
        const V t497 = t27 + t219;
        const V t498 = t26 - t218;
        const V t499 = t27 - t219;
        // complex block of 2
        const V t500 = t74 + t266;
        const V t501 = t75 + t267;
        const V t502 = t74 - t266;
        const V t503 = t75 - t267;
        // complex block of 2
        const V t504 = t122 + t314;
        const V t505 = t123 + t315;
        const V t506 = t122 - t314;
        const V t507 = t123 - t315;
        // complex block of 2
        const V t508 = t170 + t362;
        const V t509 = t171 + t363;
        const V t510 = t170 - t362;
        const V t511 = t171 - t363;
        // complex block of 2
        const V t512 = t496 + t504;
        const V t513 = t497 + t505;
        const V t514 = t496 - t504;
        const V t515 = t497 - t505;
        // complex block of 2
        const V t516 = t500 + t508;
        const V t517 = t501 + t509;
        const V t518 = t500 - t508;
        const V t519 = t501 - t509;
        // complex block of 2
        const V t520 = t512 + t516;
        io.re(16, t520);
        const V t521 = t513 + t517;
        io.im(16, t521);
        const V t522 = t512 - t516;
        io.re(36, t522);
        const V t523 = t513 - t517;
        io.im(36, t523);
        // complex block of 2
        const V t524 = t514 + t519;
        io.re(26, t524);
        const V t525 = t515 - t518;
        io.im(26, t525);
        const V t526 = t514 - t519;
        io.re(6, t526);
        const V t527 = t515 + t518;
        io.im(6, t527);
        // complex block of 8, multiplier 5
        const V t528 = c[4] * t502;
        const V t529 = c[4] * t503;
        const V t530 = t528 + t529;
        const V t531 = t529 - t528;
        const V t532 = c[4] * t510;
        const V t533 = c[4] * t511;
        const V t534 = t532 + t533;
        const V t535 = t533 - t532;
        // complex block of 2
        const V t536 = t498 + t507;
        const V t537 = t499 - t506;
        const V t538 = t498 - t507;
        const V t539 = t499 + t506;
        // complex block of 2
        const V t540 = t530 + t535;
        const V t541 = t534 - t531;
        const V t542 = t535 - t530;
        const V t543 = t531 + t534;
        // complex block of 2
        const V t544 = t536 - t540;
        io.re(21, t544);
        const V t545 = t537 + t541;
        io.im(21, t545);
        const V t546 = t536 + t540;
        io.re(1, t546);
        const V t547 = t537 - t541;
        io.im(1, t547);
        // complex block of 2
        const V t548 = t538 - t543;
        io.re(31, t548);
        const V t549 = t539 - t542;
        io.im(31, t549);
        const V t550 = t538 + t543;
        io.re(11, t550);
        const V t551 = t539 + t542;
        io.im(11, t551);
        // complex block of 2
        const V t552 = t28 + t220;
        const V t553 = t29 + t221;
        const V t554 = t28 - t220;
        const V t555 = t29 - t221;
        // complex block of 2
        const V t556 = t76 + t268;
        const V t557 = t77 + t269;
        const V t558 = t76 - t268;
        const V t559 = t77 - t269;
        // complex block of 2
        const V t560 = t124 + t316;
        const V t561 = t125 + t317;
        const V t562 = t124 - t316;
        const V t563 = t125 - t317;
        // complex block of 2
        const V t564 = t172 + t364;
        const V t565 = t173 + t365;
        const V t566 = t172 - t364;
        const V t567 = t173 - t365;
        // complex block of 2
        const V t568 = t552 + t560;
        const V t569 = t553 + t561;
        const V t570 = t552 - t560;
        const V t571 = t553 - t561;
        // complex block of 2
        const V t572 = t556 + t564;
        const V t573 = t557 + t565;
        const V t574 = t556 - t564;
        const V t575 = t557 - t565;
        // complex block of 2
        const V t576 = t568 + t572;
        io.re(24, t576);
        const V t577 = t569 + t573;
        io.im(24, t577);
        const V t578 = t568 - t572;
        io.re(4, t578);
        const V t579 = t569 - t573;
        io.im(4, t579);
        // complex block of 2
        const V t580 = t570 + t575;
        io.re(34, t580);
        const V t581 = t571 - t574;
        io.im(34, t581);
        const V t582 = t570 - t575;
        io.re(14, t582);
        const V t583 = t571 + t574;
        io.im(14, t583);
        // complex block of 8, multiplier 5
        const V t584 = c[4] * t558;
        const V t585 = c[4] * t559;
        const V t586 = t584 + t585;
        const V t587 = t585 - t584;
        const V t588 = c[4] * t566;
        const V t589 = c[4] * t567;
        const V t590 = t588 + t589;
        const V t591 = t589 - t588;
        // complex block of 2
        const V t592 = t554 + t563;
        const V t593 = t555 - t562;
        const V t594 = t554 - t563;
        const V t595 = t555 + t562;
        // complex block of 2
        const V t596 = t586 + t591;
        const V t597 = t590 - t587;
        const V t598 = t591 - t586;
        const V t599 = t587 + t590;
        // complex block of 2
        const V t600 = t592 - t596;
        io.re(29, t600);
        const V t601 = t593 + t597;
        io.im(29, t601);
        const V t602 = t592 + t596;
        io.re(9, t602);
        const V t603 = t593 - t597;
        io.im(9, t603);
        // complex block of 2
        const V t604 = t594 - t599;
        io.re(39, t604);
        const V t605 = t595 - t598;
        io.im(39, t605);
        const V t606 = t594 + t599;
        io.re(19, t606);
        const V t607 = t595 + t598;
        io.im(19, t607);
        // complex block of 2
        const V t608 = t44 + t236;
        const V t609 = t45 + t237;
        const V t610 = t44 - t236;
        const V t611 = t45 - t237;
        // complex block of 2
        const V t612 = t92 + t284;
        const V t613 = t93 + t285;
        const V t614 = t92 - t284;
        const V t615 = t93 - t285;
        // complex block of 2
        const V t616 = t140 + t332;
        const V t617 = t141 + t333;
        const V t618 = t140 - t332;
        const V t619 = t141 - t333;
        // complex block of 2
        const V t620 = t188 + t380;
        const V t621 = t189 + t381;
        const V t622 = t188 - t380;
        const V t623 = t189 - t381;
        // complex block of 2
        const V t624 = t608 + t616;
        const V t625 = t609 + t617;
        const V t626 = t608 - t616;
        const V t627 = t609 - t617;
        // complex block of 2
        const V t628 = t612 + t620;
        const V t629 = t613 + t621;
        const V t630 = t612 - t620;
        const V t631 = t613 - t621;
        // complex block of 2
        const V t632 = t624 + t628;
        io.re(32, t632);
        const V t633 = t625 + t629;
        io.im(32, t633);
        const V t634 = t624 - t628;
        io.re(12, t634);
        const V t635 = t625 - t629;
        io.im(12, t635);
        // complex block of 2
        const V t636 = t626 + t631;
        io.re(2, t636);
        const V t637 = t627 - t630;
        io.im(2, t637);
        const V t638 = t626 - t631;
        io.re(22, t638);
        const V t639 = t627 + t630;
        io.im(22, t639);
        // complex block of 8, multiplier 5
        const V t640 = c[4] * t614;
        const V t641 = c[4] * t615;
        const V t642 = t640 + t641;
        const V t643 = t641 - t640;
        const V t644 = c[4] * t622;
        const V t645 = c[4] * t623;
        const V t646 = t644 + t645;
        const V t647 = t645 - t644;
        // complex block of 2
        const V t648 = t610 + t619;
        const V t649 = t611 - t618;
        const V t650 = t610 - t619;
        const V t651 = t611 + t618;
        // complex block of 2
        const V t652 = t642 + t647;
        const V t653 = t646 - t643;
        const V t654 = t647 - t642;
        const V t655 = t643 + t646;
        // complex block of 2
        const V t656 = t648 - t652;
        io.re(37, t656);
        const V t657 = t649 + t653;
        io.im(37, t657);
        const V t658 = t648 + t652;
        io.re(17, t658);
        const V t659 = t649 - t653;
        io.im(17, t659);
        // complex block of 2
        const V t660 = t650 - t655;
        io.re(7, t660);
        const V t661 = t651 - t654;
        io.im(7, t661);
        const V t662 = t650 + t655;
        io.re(27, t662);
        const V t663 = t651 + t654;
        io.im(27, t663);
    }
};

}  // namespace zulg
