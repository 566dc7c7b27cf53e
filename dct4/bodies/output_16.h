// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_output, 16.
// Output row of radix 16, rotations by the table, then a mirrored skew transform.
// 112 additions, 112 subtractions, 176 multiplications; 15 constants; 36 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Output<16> {
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: -sin 2 pi 15/16
        0.9238795325112867,  // c[1]: cos 2 pi 15/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.19509032201612828,  // c[3]: -sin 2 pi 31/32
        0.9807852804032304,  // c[4]: cos 2 pi 31/32
        0.5555702330196022,  // c[5]: -sin 2 pi 29/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
        0.0980171403295606,  // c[7]: -sin 2 pi 63/64
        0.9951847266721969,  // c[8]: cos 2 pi 63/64
        0.2902846772544624,  // c[9]: -sin 2 pi 61/64
        0.9569403357322088,  // c[10]: cos 2 pi 61/64
        0.47139673682599764,  // c[11]: -sin 2 pi 59/64
        0.881921264348355,  // c[12]: cos 2 pi 59/64
        0.6343932841636455,  // c[13]: -sin 2 pi 57/64
        0.773010453362737,  // c[14]: cos 2 pi 57/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Output> c{};
        const V x0i = io.im(0);
        const V w1 = io.table(1);
        const V t0 = x0i * w1;
        const V x0r = io.re(0);
        const V w0 = io.table(0);
        const V t1 = x0r * w0;
        const V t2 = t1 - t0;
        const V t3 = x0i * w0;
        const V t4 = x0r * w1;
        const V t5 = t4 + t3;
        const V x15i = io.im(15);
        const V w3 = io.table(3);
        const V t6 = x15i * w3;
        const V x15r = io.re(15);
        const V w2 = io.table(2);
        const V t7 = x15r * w2;
        const V t8 = t7 - t6;
        const V t9 = x15i * w2;
        const V t10 = x15r * w3;
        const V t11 = t10 + t9;
        const V x1i = io.im(1);
        const V w5 = io.table(5);
        const V t12 = x1i * w5;
        const V x1r = io.re(1);
        const V w4 = io.table(4);
        const V t13 = x1r * w4;
        const V t14 = t13 - t12;
        const V t15 = x1i * w4;
        const V t16 = x1r * w5;
        const V t17 = t16 + t15;
        const V x14i = io.im(14);
        const V w7 = io.table(7);
        const V t18 = x14i * w7;
        const V x14r = io.re(14);
        const V w6 = io.table(6);
        const V t19 = x14r * w6;
        const V t20 = t19 - t18;
        const V t21 = x14i * w6;
        const V t22 = x14r * w7;
        const V t23 = t22 + t21;
        const V x2i = io.im(2);
        const V w9 = io.table(9);
        const V t24 = x2i * w9;
        const V x2r = io.re(2);
        const V w8 = io.table(8);
        const V t25 = x2r * w8;
        const V t26 = t25 - t24;
        const V t27 = x2i * w8;
        const V t28 = x2r * w9;
        const V t29 = t28 + t27;
        const V x13i = io.im(13);
        const V w11 = io.table(11);
        const V t30 = x13i * w11;
        const V x13r = io.re(13);
        const V w10 = io.table(10);
        const V t31 = x13r * w10;
        const V t32 = t31 - t30;
        const V t33 = x13i * w10;
        const V t34 = x13r * w11;
        const V t35 = t34 + t33;
        const V x3i = io.im(3);
        const V w13 = io.table(13);
        const V t36 = x3i * w13;
        const V x3r = io.re(3);
        const V w12 = io.table(12);
        const V t37 = x3r * w12;
        const V t38 = t37 - t36;
        const V t39 = x3i * w12;
        const V t40 = x3r * w13;
        const V t41 = t40 + t39;
        const V x12i = io.im(12);
        const V w15 = io.table(15);
        const V t42 = x12i * w15;
        const V x12r = io.re(12);
        const V w14 = io.table(14);
        const V t43 = x12r * w14;
        const V t44 = t43 - t42;
        const V t45 = x12i * w14;
        const V t46 = x12r * w15;
        const V t47 = t46 + t45;
        const V x4i = io.im(4);
        const V w17 = io.table(17);
        const V t48 = x4i * w17;
        const V x4r = io.re(4);
        const V w16 = io.table(16);
        const V t49 = x4r * w16;
        const V t50 = t49 - t48;
        const V t51 = x4i * w16;
        const V t52 = x4r * w17;
        const V t53 = t52 + t51;
        const V x11i = io.im(11);
        const V w19 = io.table(19);
        const V t54 = x11i * w19;
        const V x11r = io.re(11);
        const V w18 = io.table(18);
        const V t55 = x11r * w18;
        const V t56 = t55 - t54;
        const V t57 = x11i * w18;
        const V t58 = x11r * w19;
        const V t59 = t58 + t57;
        const V x5i = io.im(5);
        const V w21 = io.table(21);
        const V t60 = x5i * w21;
        const V x5r = io.re(5);
        const V w20 = io.table(20);
        const V t61 = x5r * w20;
        const V t62 = t61 - t60;
        const V t63 = x5i * w20;
        const V t64 = x5r * w21;
        const V t65 = t64 + t63;
        const V x10i = io.im(10);
        const V w23 = io.table(23);
        const V t66 = x10i * w23;
        const V x10r = io.re(10);
        const V w22 = io.table(22);
        const V t67 = x10r * w22;
        const V t68 = t67 - t66;
        const V t69 = x10i * w22;
        const V t70 = x10r * w23;
        const V t71 = t70 + t69;
        const V x6i = io.im(6);
        const V w25 = io.table(25);
        const V t72 = x6i * w25;
        const V x6r = io.re(6);
        const V w24 = io.table(24);
        const V t73 = x6r * w24;
        const V t74 = t73 - t72;
        const V t75 = x6i * w24;
        const V t76 = x6r * w25;
        const V t77 = t76 + t75;
        const V x9i = io.im(9);
        const V w27 = io.table(27);
        const V t78 = x9i * w27;
        const V x9r = io.re(9);
        const V w26 = io.table(26);
        const V t79 = x9r * w26;
        const V t80 = t79 - t78;
        const V t81 = x9i * w26;
        const V t82 = x9r * w27;
        const V t83 = t82 + t81;
        const V x7i = io.im(7);
        const V w29 = io.table(29);
        const V t84 = x7i * w29;
        const V x7r = io.re(7);
        const V w28 = io.table(28);
        const V t85 = x7r * w28;
        const V t86 = t85 - t84;
        const V t87 = x7i * w28;
        const V t88 = x7r * w29;
        const V t89 = t88 + t87;
        const V x8i = io.im(8);
        const V w31 = io.table(31);
        const V t90 = x8i * w31;
        const V x8r = io.re(8);
        const V w30 = io.table(30);
        const V t91 = x8r * w30;
        const V t92 = t91 - t90;
        const V t93 = x8i * w30;
        const V t94 = x8r * w31;
        const V t95 = t94 + t93;
        // complex block of 2
        const V t96 = t5 - t11;
        const V t97 = t2 + t8;
        const V t98 = t5 + t11;
        const V t99 = t2 - t8;
        // mirrored skew block of 32
        const V t100 = c[7] * t98;
        const V t101 = c[8] * t99;
        const V t102 = t101 - t100;
        const V t103 = c[7] * t99;
        const V t104 = c[8] * t98;
        const V t105 = t104 + t103;
        // complex block of 2
        const V t106 = t17 - t23;
        const V t107 = t14 + t20;
        const V t108 = t17 + t23;
        const V t109 = t14 - t20;
        // mirrored skew block of 32
        const V t110 = c[9] * t108;
        const V t111 = c[10] * t109;
        const V t112 = t111 - t110;
        const V t113 = c[9] * t109;
        const V t114 = c[10] * t108;
        const V t115 = t114 + t113;
        // complex block of 2
        const V t116 = t29 - t35;
        const V t117 = t26 + t32;
        const V t118 = t29 + t35;
        const V t119 = t26 - t32;
        // mirrored skew block of 32
        const V t120 = c[11] * t118;
        const V t121 = c[12] * t119;
        const V t122 = t121 - t120;
        const V t123 = c[11] * t119;
        const V t124 = c[12] * t118;
        const V t125 = t124 + t123;
        // complex block of 2
        const V t126 = t41 - t47;
        const V t127 = t38 + t44;
        const V t128 = t41 + t47;
        const V t129 = t38 - t44;
        // mirrored skew block of 32
        const V t130 = c[13] * t128;
        const V t131 = c[14] * t129;
        const V t132 = t131 - t130;
        const V t133 = c[13] * t129;
        const V t134 = c[14] * t128;
        const V t135 = t134 + t133;
        // complex block of 2
        const V t136 = t53 - t59;
        const V t137 = t50 + t56;
        const V t138 = t53 + t59;
        const V t139 = t50 - t56;
        // mirrored skew block of 32
        const V t140 = c[14] * t138;
        const V t141 = c[13] * t139;
        const V t142 = t141 - t140;
        const V t143 = c[14] * t139;
        const V t144 = c[13] * t138;
        const V t145 = t144 + t143;
        // complex block of 2
        const V t146 = t65 - t71;
        const V t147 = t62 + t68;
        const V t148 = t65 + t71;
        const V t149 = t62 - t68;
        // mirrored skew block of 32
        const V t150 = c[12] * t148;
        const V t151 = c[11] * t149;
        const V t152 = t151 - t150;
        const V t153 = c[12] * t149;
        const V t154 = c[11] * t148;
        const V t155 = t154 + t153;
        // complex block of 2
        const V t156 = t77 - t83;
        const V t157 = t74 + t80;
        const V t158 = t77 + t83;
        const V t159 = t74 - t80;
        // mirrored skew block of 32
        const V t160 = c[10] * t158;
        const V t161 = c[9] * t159;
        const V t162 = t161 - t160;
        const V t163 = c[10] * t159;
        const V t164 = c[9] * t158;
        const V t165 = t164 + t163;
        // complex block of 2
        const V t166 = t89 - t95;
        const V t167 = t86 + t92;
        const V t168 = t89 + t95;
        const V t169 = t86 - t92;
        // mirrored skew block of 32
        const V t170 = c[8] * t168;
        const V t171 = c[7] * t169;
        const V t172 = t171 - t170;
        const V t173 = c[8] * t169;
        const V t174 = c[7] * t168;
        const V t175 = t174 + t173;
        // complex block of 2
        const V t176 = t96 - t166;
        const V t177 = t97 + t167;
        const V t178 = t96 + t166;
        const V t179 = t97 - t167;
        // mirrored skew block of 16
        const V t180 = c[3] * t178;
        const V t181 = c[4] * t179;
        const V t182 = t181 - t180;
        const V t183 = c[3] * t179;
        const V t184 = c[4] * t178;
        const V t185 = t184 + t183;
        // complex block of 2
        const V t186 = t106 - t156;
        const V t187 = t107 + t157;
        const V t188 = t106 + t156;
        const V t189 = t107 - t157;
        // mirrored skew block of 16
        const V t190 = c[5] * t188;
        const V t191 = c[6] * t189;
        const V t192 = t191 - t190;
        const V t193 = c[5] * t189;
        const V t194 = c[6] * t188;
        const V t195 = t194 + t193;
        // complex block of 2
        const V t196 = t116 - t146;
        const V t197 = t117 + t147;
        const V t198 = t116 + t146;
        const V t199 = t117 - t147;
        // mirrored skew block of 16
        const V t200 = c[6] * t198;
        const V t201 = c[5] * t199;
        const V t202 = t201 - t200;
        const V t203 = c[6] * t199;
        const V t204 = c[5] * t198;
        const V t205 = t204 + t203;
        // complex block of 2
        const V t206 = t126 - t136;
        const V t207 = t127 + t137;
        const V t208 = t126 + t136;
        const V t209 = t127 - t137;
        // mirrored skew block of 16
        const V t210 = c[4] * t208;
        const V t211 = c[3] * t209;
        const V t212 = t211 - t210;
        const V t213 = c[4] * t209;
        const V t214 = c[3] * t208;
        const V t215 = t214 + t213;
        // complex block of 2
        const V t216 = t176 - t206;
        const V t217 = t177 + t207;
        const V t218 = t176 + t206;
        const V t219 = t177 - t207;
        // mirrored skew block of 8
        const V t220 = c[0] * t218;
        const V t221 = c[1] * t219;
        const V t222 = t221 - t220;
        const V t223 = c[0] * t219;
        const V t224 = c[1] * t218;
        const V t225 = t224 + t223;
        // complex block of 2
        const V t226 = t186 - t196;
        const V t227 = t187 + t197;
        const V t228 = t186 + t196;
        const V t229 = t187 - t197;
        // mirrored skew block of 8
        const V t230 = c[1] * t228;
        const V t231 = c[0] * t229;
        const V t232 = t231 - t230;
        const V t233 = c[1] * t229;
        const V t234 = c[0] * t228;
        const V t235 = t234 + t233;
        // mirrored skew block of 4
        const V t236 = t217 - t227;
        const V t237 = c[2] * t236;
        const V t238 = t216 + t226;
        const V t239 = c[2] * t238;
        const V t240 = t217 + t227;
        io.rising(0, t240);
        const V t241 = t237 - t239;
        io.rising(8, t241);
        const V t242 = t216 - t226;
        io.falling(0, t242);
        const V t243 = t237 + t239;
        io.falling(8, t243);
        // mirrored skew block of 4
        const V t244 = t222 - t232;
        const V t245 = c[2] * t244;
        const V t246 = t225 + t235;
        const V t247 = c[2] * t246;
        const V t248 = t222 + t232;
        io.rising(4, t248);
        const V t249 = t245 - t247;
        io.rising(12, t249);
        const V t250 = t225 - t235;
        io.falling(4, t250);
        const V t251 = t245 + t247;
        io.falling(12, t251);
        // complex block of 2
        const V t252 = t185 - t215;
        const V t253 = t182 + t212;
        const V t254 = t185 + t215;
        const V t255 = t182 - t212;
        // mirrored skew block of 8
        const V t256 = c[0] * t254;
        const V t257 = c[1] * t255;
        const V t258 = t257 - t256;
        const V t259 = c[0] * t255;
        const V t260 = c[1] * t254;
        const V t261 = t260 + t259;
        // complex block of 2
        const V t262 = t195 - t205;
        const V t263 = t192 + t202;
        const V t264 = t195 + t205;
        const V t265 = t192 - t202;
        // mirrored skew block of 8
        const V t266 = c[1] * t264;
        const V t267 = c[0] * t265;
        const V t268 = t267 - t266;
        const V t269 = c[1] * t265;
        const V t270 = c[0] * t264;
        const V t271 = t270 + t269;
        // mirrored skew block of 4
        const V t272 = t253 - t263;
        const V t273 = c[2] * t272;
        const V t274 = t252 + t262;
        const V t275 = c[2] * t274;
        const V t276 = t253 + t263;
        io.rising(2, t276);
        const V t277 = t273 - t275;
        io.rising(10, t277);
        const V t278 = t252 - t262;
        io.falling(2, t278);
        const V t279 = t273 + t275;
        io.falling(10, t279);
        // mirrored skew block of 4
        const V t280 = t258 - t268;
        const V t281 = c[2] * t280;
        const V t282 = t261 + t271;
        const V t283 = c[2] * t282;
        const V t284 = t258 + t268;
        io.rising(6, t284);
        const V t285 = t281 - t283;
        io.rising(14, t285);
        const V t286 = t261 - t271;
        io.falling(6, t286);
        const V t287 = t281 + t283;
        io.falling(14, t287);
        // complex block of 2
        const V t288 = t105 - t175;
        const V t289 = t102 + t172;
        const V t290 = t105 + t175;
        const V t291 = t102 - t172;
        // mirrored skew block of 16
        const V t292 = c[3] * t290;
        const V t293 = c[4] * t291;
        const V t294 = t293 - t292;
        const V t295 = c[3] * t291;
        const V t296 = c[4] * t290;
        const V t297 = t296 + t295;
        // complex block of 2
        const V t298 = t115 - t165;
        const V t299 = t112 + t162;
        const V t300 = t115 + t165;
        const V t301 = t112 - t162;
        // mirrored skew block of 16
        const V t302 = c[5] * t300;
        const V t303 = c[6] * t301;
        const V t304 = t303 - t302;
        const V t305 = c[5] * t301;
        const V t306 = c[6] * t300;
        const V t307 = t306 + t305;
        // complex block of 2
        const V t308 = t125 - t155;
        const V t309 = t122 + t152;
        const V t310 = t125 + t155;
        const V t311 = t122 - t152;
        // mirrored skew block of 16
        const V t312 = c[6] * t310;
        const V t313 = c[5] * t311;
        const V t314 = t313 - t312;
        const V t315 = c[6] * t311;
        const V t316 = c[5] * t310;
        const V t317 = t316 + t315;
        // complex block of 2
        const V t318 = t135 - t145;
        const V t319 = t132 + t142;
        const V t320 = t135 + t145;
        const V t321 = t132 - t142;
        // mirrored skew block of 16
        const V t322 = c[4] * t320;
        const V t323 = c[3] * t321;
        const V t324 = t323 - t322;
        const V t325 = c[4] * t321;
        const V t326 = c[3] * t320;
        const V t327 = t326 + t325;
        // complex block of 2
        const V t328 = t288 - t318;
        const V t329 = t289 + t319;
        const V t330 = t288 + t318;
        const V t331 = t289 - t319;
        // mirrored skew block of 8
        const V t332 = c[0] * t330;
        const V t333 = c[1] * t331;
        const V t334 = t333 - t332;
        const V t335 = c[0] * t331;
        const V t336 = c[1] * t330;
        const V t337 = t336 + t335;
        // complex block of 2
        const V t338 = t298 - t308;
        const V t339 = t299 + t309;
        const V t340 = t298 + t308;
        const V t341 = t299 - t309;
        // mirrored skew block of 8
        const V t342 = c[1] * t340;
        const V t343 = c[0] * t341;
        const V t344 = t343 - t342;
        const V t345 = c[1] * t341;
        const V t346 = c[0] * t340;
        const V t347 = t346 + t345;
        // mirrored skew block of 4
        const V t348 = t329 - t339;
        const V t349 = c[2] * t348;
        const V t350 = t328 + t338;
        const V t351 = c[2] * t350;
        const V t352 = t329 + t339;
        io.rising(1, t352);
        const V t353 = t349 - t351;
        io.rising(9, t353);
        const V t354 = t328 - t338;
        io.falling(1, t354);
        const V t355 = t349 + t351;
        io.falling(9, t355);
        // mirrored skew block of 4
        const V t356 = t334 - t344;
        const V t357 = c[2] * t356;
        const V t358 = t337 + t347;
        const V t359 = c[2] * t358;
        const V t360 = t334 + t344;
        io.rising(5, t360);
        const V t361 = t357 - t359;
        io.rising(13, t361);
        const V t362 = t337 - t347;
        io.falling(5, t362);
        const V t363 = t357 + t359;
        io.falling(13, t363);
        // complex block of 2
        const V t364 = t297 - t327;
        const V t365 = t294 + t324;
        const V t366 = t297 + t327;
        const V t367 = t294 - t324;
        // mirrored skew block of 8
        const V t368 = c[0] * t366;
        const V t369 = c[1] * t367;
        const V t370 = t369 - t368;
        const V t371 = c[0] * t367;
        const V t372 = c[1] * t366;
        const V t373 = t372 + t371;
        // complex block of 2
        const V t374 = t307 - t317;
        const V t375 = t304 + t314;
        const V t376 = t307 + t317;
        const V t377 = t304 - t314;
        // mirrored skew block of 8
        const V t378 = c[1] * t376;
        const V t379 = c[0] * t377;
        const V t380 = t379 - t378;
        const V t381 = c[1] * t377;
        const V t382 = c[0] * t376;
        const V t383 = t382 + t381;
        // mirrored skew block of 4
        const V t384 = t365 - t375;
        const V t385 = c[2] * t384;
        const V t386 = t364 + t374;
        const V t387 = c[2] * t386;
        const V t388 = t365 + t375;
        io.rising(3, t388);
        const V t389 = t385 - t387;
        io.rising(11, t389);
        const V t390 = t364 - t374;
        io.falling(3, t390);
        const V t391 = t385 + t387;
        io.falling(11, t391);
        // mirrored skew block of 4
        const V t392 = t370 - t380;
        const V t393 = c[2] * t392;
        const V t394 = t373 + t383;
        const V t395 = c[2] * t394;
        const V t396 = t370 + t380;
        io.rising(7, t396);
        const V t397 = t393 - t395;
        io.rising(15, t397);
        const V t398 = t373 - t383;
        io.falling(7, t398);
        const V t399 = t393 + t395;
        io.falling(15, t399);
    }
};

}  // namespace zulg
