// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 48.
// Complex DFT of 48 points, prime-factor, order 3, 16.
// 318 additions, 318 subtractions, 148 multiplications (244 with `scale`); 5 constants; 98 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<48> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.9238795325112867,  // c[3]: sin 2 pi 3/16
        0.3826834323650898,  // c[4]: cos 2 pi 3/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3
        const V x16r = io.re(16);
        const V x32r = io.re(32);
        const V t0 = x16r + x32r;
        const V x16i = io.im(16);
        const V x32i = io.im(32);
        const V t1 = x16i + x32i;
        const V t2 = x16r - x32r;
        const V t3 = x16i - x32i;
        const V x0r = io.re(0);
        const V t4 = t0 + x0r;
        const V x0i = io.im(0);
        const V t5 = t1 + x0i;
        const V t6 = c[1] * t0;
        const V t7 = x0r - t6;
        const V t8 = c[1] * t1;
        const V t9 = x0i - t8;
        const V t10 = c[2] * t2;
        const V t11 = c[2] * t3;
        const V t12 = t7 + t11;
        const V t13 = t9 - t10;
        const V t14 = t7 - t11;
        const V t15 = t9 + t10;
        // complex block of 3
        const V x19r = io.re(19);
        const V x35r = io.re(35);
        const V t16 = x19r + x35r;
        const V x19i = io.im(19);
        const V x35i = io.im(35);
        const V t17 = x19i + x35i;
        const V t18 = x19r - x35r;
        const V t19 = x19i - x35i;
        const V x3r = io.re(3);
        const V t20 = t16 + x3r;
        const V x3i = io.im(3);
        const V t21 = t17 + x3i;
        const V t22 = c[1] * t16;
        const V t23 = x3r - t22;
        const V t24 = c[1] * t17;
        const V t25 = x3i - t24;
        const V t26 = c[2] * t18;
        const V t27 = c[2] * t19;
        const V t28 = t23 + t27;
        const V t29 = t25 - t26;
        const V t30 = t23 - t27;
        const V t31 = t25 + t26;
        // complex block of 3
        const V x22r = io.re(22);
        const V x38r = io.re(38);
        const V t32 = x22r + x38r;
        const V x22i = io.im(22);
        const V x38i = io.im(38);
        const V t33 = x22i + x38i;
        const V t34 = x22r - x38r;
        const V t35 = x22i - x38i;
        const V x6r = io.re(6);
        const V t36 = t32 + x6r;
        const V x6i = io.im(6);
        const V t37 = t33 + x6i;
        const V t38 = c[1] * t32;
        const V t39 = x6r - t38;
        const V t40 = c[1] * t33;
        const V t41 = x6i - t40;
        const V t42 = c[2] * t34;
        const V t43 = c[2] * t35;
        const V t44 = t39 + t43;
        const V t45 = t41 - t42;
        const V t46 = t39 - t43;
        const V t47 = t41 + t42;
        // complex block of 3
        const V x25r = io.re(25);
        const V x41r = io.re(41);
        const V t48 = x25r + x41r;
        const V x25i = io.im(25);
        const V x41i = io.im(41);
        const V t49 = x25i + x41i;
        const V t50 = x25r - x41r;
        const V t51 = x25i - x41i;
        const V x9r = io.re(9);
        const V t52 = t48 + x9r;
        const V x9i = io.im(9);
        const V t53 = t49 + x9i;
        const V t54 = c[1] * t48;
        const V t55 = x9r - t54;
        const V t56 = c[1] * t49;
        const V t57 = x9i - t56;
        const V t58 = c[2] * t50;
        const V t59 = c[2] * t51;
        const V t60 = t55 + t59;
        const V t61 = t57 - t58;
        const V t62 = t55 - t59;
        const V t63 = t57 + t58;
        // complex block of 3
        const V x28r = io.re(28);
        const V x44r = io.re(44);
        const V t64 = x28r + x44r;
        const V x28i = io.im(28);
        const V x44i = io.im(44);
        const V t65 = x28i + x44i;
        const V t66 = x28r - x44r;
        const V t67 = x28i - x44i;
        const V x12r = io.re(12);
        const V t68 = t64 + x12r;
        const V x12i = io.im(12);
        const V t69 = t65 + x12i;
        const V t70 = c[1] * t64;
        const V t71 = x12r - t70;
        const V t72 = c[1] * t65;
        const V t73 = x12i - t72;
        const V t74 = c[2] * t66;
        const V t75 = c[2] * t67;
        const V t76 = t71 + t75;
        const V t77 = t73 - t74;
        const V t78 = t71 - t75;
        const V t79 = t73 + t74;
        // complex block of 3
        const V x31r = io.re(31);
        const V x47r = io.re(47);
        const V t80 = x31r + x47r;
        const V x31i = io.im(31);
        const V x47i = io.im(47);
        const V t81 = x31i + x47i;
        const V t82 = x31r - x47r;
        const V t83 = x31i - x47i;
        const V x15r = io.re(15);
        const V t84 = t80 + x15r;
        const V x15i = io.im(15);
        const V t85 = t81 + x15i;
        const V t86 = c[1] * t80;
        const V t87 = x15r - t86;
        const V t88 = c[1] * t81;
        const V t89 = x15i - t88;
        const V t90 = c[2] * t82;
        const V t91 = c[2] * t83;
        const V t92 = t87 + t91;
        const V t93 = t89 - t90;
        const V t94 = t87 - t91;
        const V t95 = t89 + t90;
        // complex block of 3
        const V x34r = io.re(34);
        const V x2r = io.re(2);
        const V t96 = x34r + x2r;
        const V x34i = io.im(34);
        const V x2i = io.im(2);
        const V t97 = x34i + x2i;
        const V t98 = x34r - x2r;
        const V t99 = x34i - x2i;
        const V x18r = io.re(18);
        const V t100 = t96 + x18r;
        const V x18i = io.im(18);
        const V t101 = t97 + x18i;
        const V t102 = c[1] * t96;
        const V t103 = x18r - t102;
        const V t104 = c[1] * t97;
        const V t105 = x18i - t104;
        const V t106 = c[2] * t98;
        const V t107 = c[2] * t99;
        const V t108 = t103 + t107;
        const V t109 = t105 - t106;
        const V t110 = t103 - t107;
        const V t111 = t105 + t106;
        // complex block of 3
        const V x37r = io.re(37);
        const V x5r = io.re(5);
        const V t112 = x37r + x5r;
        const V x37i = io.im(37);
        const V x5i = io.im(5);
        const V t113 = x37i + x5i;
        const V t114 = x37r - x5r;
        const V t115 = x37i - x5i;
        const V x21r = io.re(21);
        const V t116 = t112 + x21r;
        const V x21i = io.im(21);
        const V t117 = t113 + x21i;
        const V t118 = c[1] * t112;
        const V t119 = x21r - t118;
        const V t120 = c[1] * t113;
        const V t121 = x21i - t120;
        const V t122 = c[2] * t114;
        const V t123 = c[2] * t115;
        const V t124 = t119 + t123;
        const V t125 = t121 - t122;
        const V t126 = t119 - t123;
        const V t127 = t121 + t122;
        // complex block of 3
        const V x40r = io.re(40);
        const V x8r = io.re(8);
        const V t128 = x40r + x8r;
        const V x40i = io.im(40);
        const V x8i = io.im(8);
        const V t129 = x40i + x8i;
        const V t130 = x40r - x8r;
        const V t131 = x40i - x8i;
        const V x24r = io.re(24);
        const V t132 = t128 + x24r;
        const V x24i = io.im(24);
        const V t133 = t129 + x24i;
        const V t134 = c[1] * t128;
        const V t135 = x24r - t134;
        const V t136 = c[1] * t129;
        const V t137 = x24i - t136;
        const V t138 = c[2] * t130;
        const V t139 = c[2] * t131;
        const V t140 = t135 + t139;
        const V t141 = t137 - t138;
        const V t142 = t135 - t139;
        const V t143 = t137 + t138;
        // complex block of 3
        const V x43r = io.re(43);
        const V x11r = io.re(11);
        const V t144 = x43r + x11r;
        const V x43i = io.im(43);
        const V x11i = io.im(11);
        const V t145 = x43i + x11i;
        const V t146 = x43r - x11r;
        const V t147 = x43i - x11i;
        const V x27r = io.re(27);
        const V t148 = t144 + x27r;
        const V x27i = io.im(27);
        const V t149 = t145 + x27i;
        const V t150 = c[1] * t144;
        const V t151 = x27r - t150;
        const V t152 = c[1] * t145;
        const V t153 = x27i - t152;
        const V t154 = c[2] * t146;
        const V t155 = c[2] * t147;
        const V t156 = t151 + t155;
        const V t157 = t153 - t154;
        const V t158 = t151 - t155;
        const V t159 = t153 + t154;
        // complex block of 3
        const V x46r = io.re(46);
        const V x14r = io.re(14);
        const V t160 = x46r + x14r;
        const V x46i = io.im(46);
        const V x14i = io.im(14);
        const V t161 = x46i + x14i;
        const V t162 = x46r - x14r;
        const V t163 = x46i - x14i;
        const V x30r = io.re(30);
        const V t164 = t160 + x30r;
        const V x30i = io.im(30);
        const V t165 = t161 + x30i;
        const V t166 = c[1] * t160;
        const V t167 = x30r - t166;
        const V t168 = c[1] * t161;
        const V t169 = x30i - t168;
        const V t170 = c[2] * t162;
        const V t171 = c[2] * t163;
        const V t172 = t167 + t171;
        const V t173 = t169 - t170;
        const V t174 = t167 - t171;
        const V t175 = t169 + t170;
        // complex block of 3
        const V x1r = io.re(1);
        const V x17r = io.re(17);
        const V t176 = x1r + x17r;
        const V x1i = io.im(1);
        const V x17i = io.im(17);
        const V t177 = x1i + x17i;
        const V t178 = x1r - x17r;
        const V t179 = x1i - x17i;
        const V x33r = io.re(33);
        const V t180 = t176 + x33r;
        const V x33i = io.im(33);
        const V t181 = t177 + x33i;
        const V t182 = c[1] * t176;
        const V t183 = x33r - t182;
        const V t184 = c[1] * t177;
        const V t185 = x33i - t184;
        const V t186 = c[2] * t178;
        const V t187 = c[2] * t179;
        const V t188 = t183 + t187;
        const V t189 = t185 - t186;
        const V t190 = t183 - t187;
        const V t191 = t185 + t186;
        // complex block of 3
        const V x4r = io.re(4);
        const V x20r = io.re(20);
        const V t192 = x4r + x20r;
        const V x4i = io.im(4);
        const V x20i = io.im(20);
        const V t193 = x4i + x20i;
        const V t194 = x4r - x20r;
        const V t195 = x4i - x20i;
        const V x36r = io.re(36);
        const V t196 = t192 + x36r;
        const V x36i = io.im(36);
        const V t197 = t193 + x36i;
        const V t198 = c[1] * t192;
        const V t199 = x36r - t198;
        const V t200 = c[1] * t193;
        const V t201 = x36i - t200;
        const V t202 = c[2] * t194;
        const V t203 = c[2] * t195;
        const V t204 = t199 + t203;
        const V t205 = t201 - t202;
        const V t206 = t199 - t203;
        const V t207 = t201 + t202;
        // complex block of 3
        const V x7r = io.re(7);
        const V x23r = io.re(23);
        const V t208 = x7r + x23r;
        const V x7i = io.im(7);
        const V x23i = io.im(23);
        const V t209 = x7i + x23i;
        const V t210 = x7r - x23r;
        const V t211 = x7i - x23i;
        const V x39r = io.re(39);
        const V t212 = t208 + x39r;
        const V x39i = io.im(39);
        const V t213 = t209 + x39i;
        const V t214 = c[1] * t208;
        const V t215 = x39r - t214;
        const V t216 = c[1] * t209;
        const V t217 = x39i - t216;
        const V t218 = c[2] * t210;
        const V t219 = c[2] * t211;
        const V t220 = t215 + t219;
        const V t221 = t217 - t218;
        const V t222 = t215 - t219;
        const V t223 = t217 + t218;
        // complex block of 3
        const V x10r = io.re(10);
        const V x26r = io.re(26);
        const V t224 = x10r + x26r;
        const V x10i = io.im(10);
        const V x26i = io.im(26);
        const V t225 = x10i + x26i;
        const V t226 = x10r - x26r;
        const V t227 = x10i - x26i;
        const V x42r = io.re(42);
        const V t228 = t224 + x42r;
        const V x42i = io.im(42);
        const V t229 = t225 + x42i;
        const V t230 = c[1] * t224;
        const V t231 = x42r - t230;
        const V t232 = c[1] * t225;
        const V t233 = x42i - t232;
        const V t234 = c[2] * t226;
        const V t235 = c[2] * t227;
        const V t236 = t231 + t235;
        const V t237 = t233 - t234;
        const V t238 = t231 - t235;
        const V t239 = t233 + t234;
        // complex block of 3
        const V x13r = io.re(13);
        const V x29r = io.re(29);
        const V t240 = x13r + x29r;
        const V x13i = io.im(13);
        const V x29i = io.im(29);
        const V t241 = x13i + x29i;
        const V t242 = x13r - x29r;
        const V t243 = x13i - x29i;
        const V x45r = io.re(45);
        const V t244 = t240 + x45r;
        const V x45i = io.im(45);
        const V t245 = t241 + x45i;
        const V t246 = c[1] * t240;
        const V t247 = x45r - t246;
        const V t248 = c[1] * t241;
        const V t249 = x45i - t248;
        const V t250 = c[2] * t242;
        const V t251 = c[2] * t243;
        const V t252 = t247 + t251;
        const V t253 = t249 - t250;
        const V t254 = t247 - t251;
        const V t255 = t249 + t250;
        // complex block of 2
        const V t256 = t4 + t132;
        const V t257 = t5 + t133;
        const V t258 = t4 - t132;
        const V t259 = t5 - t133;
        // complex block of 2
        const V t260 = t20 + t148;
        const V t261 = t21 + t149;
        const V t262 = t20 - t148;
        const V t263 = t21 - t149;
        // complex block of 2
        const V t264 = t36 + t164;
        const V t265 = t37 + t165;
        const V t266 = t36 - t164;
        const V t267 = t37 - t165;
        // complex block of 2
        const V t268 = t52 + t180;
        const V t269 = t53 + t181;
        const V t270 = t52 - t180;
        const V t271 = t53 - t181;
        // complex block of 2
        const V t272 = t68 + t196;
        const V t273 = t69 + t197;
        const V t274 = t68 - t196;
        const V t275 = t69 - t197;
        // complex block of 2
        const V t276 = t84 + t212;
        const V t277 = t85 + t213;
        const V t278 = t84 - t212;
        const V t279 = t85 - t213;
        // complex block of 2
        const V t280 = t100 + t228;
        const V t281 = t101 + t229;
        const V t282 = t100 - t228;
        const V t283 = t101 - t229;
        // complex block of 2
        const V t284 = t116 + t244;
        const V t285 = t117 + t245;
        const V t286 = t116 - t244;
        const V t287 = t117 - t245;
        // complex block of 2
        const V t288 = t256 + t272;
        const V t289 = t257 + t273;
        const V t290 = t256 - t272;
        const V t291 = t257 - t273;
        // complex block of 2
        const V t292 = t260 + t276;
        const V t293 = t261 + t277;
        const V t294 = t260 - t276;
        const V t295 = t261 - t277;
        // complex block of 2
        const V t296 = t264 + t280;
        const V t297 = t265 + t281;
        const V t298 = t264 - t280;
        const V t299 = t265 - t281;
        // complex block of 2
        const V t300 = t268 + t284;
        const V t301 = t269 + t285;
        const V t302 = t268 - t284;
        const V t303 = t269 - t285;
        // complex block of 2
        const V t304 = t288 + t296;
        const V t305 = t289 + t297;
        const V t306 = t288 - t296;
        const V t307 = t289 - t297;
        // complex block of 2
        const V t308 = t292 + t300;
        const V t309 = t293 + t301;
        const V t310 = t292 - t300;
        const V t311 = t293 - t301;
        // complex block of 2
        const V t312 = t304 + t308;
        io.re(0, t312);
        const V t313 = t305 + t309;
        io.im(0, t313);
        const V t314 = t304 - t308;
        io.re(24, t314);
        const V t315 = t305 - t309;
        io.im(24, t315);
        // complex block of 2
        const V t316 = t306 - t311;
        io.re(12, t316);
        const V t317 = t307 + t310;
        io.im(12, t317);
        const V t318 = t306 + t311;
        io.re(36, t318);
        const V t319 = t307 - t310;
        io.im(36, t319);
        // complex block of 8, multiplier 3
        const V t320 = c[0] * t294;
        const V t321 = c[0] * t295;
        const V t322 = t320 + t321;
        const V t323 = t321 - t320;
        const V t324 = c[0] * t302;
        const V t325 = c[0] * t303;
        const V t326 = t324 + t325;
        const V t327 = t325 - t324;
        // complex block of 2
        const V t328 = t290 - t299;
        const V t329 = t291 + t298;
        const V t330 = t290 + t299;
        const V t331 = t291 - t298;
        // complex block of 2
        const V t332 = t323 + t326;
        const V t333 = t327 - t322;
        const V t334 = t323 - t326;
        const V t335 = t322 + t327;
        // complex block of 2
        const V t336 = t328 + t332;
        io.re(6, t336);
        const V t337 = t329 + t333;
        io.im(6, t337);
        const V t338 = t328 - t332;
        io.re(30, t338);
        const V t339 = t329 - t333;
        io.im(30, t339);
        // complex block of 2
        const V t340 = t330 + t335;
        io.re(18, t340);
        const V t341 = t331 + t334;
        io.im(18, t341);
        const V t342 = t330 - t335;
        io.re(42, t342);
        const V t343 = t331 - t334;
        io.im(42, t343);
        // complex block of 16, multiplier 3
        const V t344 = c[3] * t263;
        const V t345 = c[4] * t262;
        const V t346 = t345 + t344;
        const V t347 = c[3] * t262;
        const V t348 = c[4] * t263;
        const V t349 = t348 - t347;
        const V t350 = c[0] * t266;
        const V t351 = c[0] * t267;
        const V t352 = t350 + t351;
        const V t353 = t351 - t350;
        const V t354 = c[4] * t271;
        const V t355 = c[3] * t270;
        const V t356 = t355 + t354;
        const V t357 = c[4] * t270;
        const V t358 = c[3] * t271;
        const V t359 = t357 - t358;
        const V t360 = c[4] * t279;
        const V t361 = c[3] * t278;
        const V t362 = t361 - t360;
        const V t363 = c[4] * t278;
        const V t364 = c[3] * t279;
        const V t365 = t364 + t363;
        const V t366 = c[0] * t282;
        const V t367 = c[0] * t283;
        const V t368 = t366 + t367;
        const V t369 = t367 - t366;
        const V t370 = c[3] * t287;
        const V t371 = c[4] * t286;
        const V t372 = t370 - t371;
        const V t373 = c[3] * t286;
        const V t374 = c[4] * t287;
        const V t375 = t374 + t373;
        // complex block of 2
        const V t376 = t258 - t275;
        const V t377 = t259 + t274;
        const V t378 = t258 + t275;
        const V t379 = t259 - t274;
        // complex block of 2
        const V t380 = t346 + t362;
        const V t381 = t349 + t365;
        const V t382 = t346 - t362;
        const V t383 = t349 - t365;
        // complex block of 2
        const V t384 = t353 + t368;
        const V t385 = t369 - t352;
        const V t386 = t353 - t368;
        const V t387 = t352 + t369;
        // complex block of 2
        const V t388 = t372 - t356;
        const V t389 = t359 - t375;
        const V t390 = t356 + t372;
        const V t391 = t359 + t375;
        // complex block of 2
        const V t392 = t376 + t384;
        const V t393 = t377 + t385;
        const V t394 = t376 - t384;
        const V t395 = t377 - t385;
        // complex block of 2
        const V t396 = t380 + t388;
        const V t397 = t381 + t389;
        const V t398 = t380 - t388;
        const V t399 = t381 - t389;
        // complex block of 2
        const V t400 = t392 + t396;
        io.re(3, t400);
        const V t401 = t393 + t397;
        io.im(3, t401);
        const V t402 = t392 - t396;
        io.re(27, t402);
        const V t403 = t393 - t397;
        io.im(27, t403);
        // complex block of 2
        const V t404 = t394 - t399;
        io.re(15, t404);
        const V t405 = t395 + t398;
        io.im(15, t405);
        const V t406 = t394 + t399;
        io.re(39, t406);
        const V t407 = t395 - t398;
        io.im(39, t407);
        // complex block of 8, multiplier 3
        const V t408 = c[0] * t382;
        const V t409 = c[0] * t383;
        const V t410 = t408 + t409;
        const V t411 = t409 - t408;
        const V t412 = c[0] * t390;
        const V t413 = c[0] * t391;
        const V t414 = t413 - t412;
        const V t415 = t413 + t412;
        // complex block of 2
        const V t416 = t378 + t387;
        const V t417 = t379 + t386;
        const V t418 = t378 - t387;
        const V t419 = t379 - t386;
        // complex block of 2
        const V t420 = t411 + t414;
        const V t421 = t415 - t410;
        const V t422 = t411 - t414;
        const V t423 = t410 + t415;
        // complex block of 2
        const V t424 = t416 + t420;
        io.re(9, t424);
        const V t425 = t417 + t421;
        io.im(9, t425);
        const V t426 = t416 - t420;
        io.re(33, t426);
        const V t427 = t417 - t421;
        io.im(33, t427);
        // complex block of 2
        const V t428 = t418 + t423;
        io.re(21, t428);
        const V t429 = t419 + t422;
        io.im(21, t429);
        const V t430 = t418 - t423;
        io.re(45, t430);
        const V t431 = t419 - t422;
        io.im(45, t431);
        // complex block of 2
        const V t432 = t12 + t140;
        const V t433 = t13 + t141;
        const V t434 = t12 - t140;
        const V t435 = t13 - t141;
        // complex block of 2
        const V t436 = t28 + t156;
        const V t437 = t29 + t157;
        const V t438 = t28 - t156;
        const V t439 = t29 - t157;
        // complex block of 2
        const V t440 = t44 + t172;
        const V t441 = t45 + t173;
        const V t442 = t44 - t172;
        const V t443 = t45 - t173;
        // complex block of 2
        const V t444 = t60 + t188;
        const V t445 = t61 + t189;
        const V t446 = t60 - t188;
        const V t447 = t61 - t189;
        // complex block of 2
        const V t448 = t76 + t204;
        const V t449 = t77 + t205;
        const V t450 = t76 - t204;
        const V t451 = t77 - t205;
        // complex block of 2
        const V t452 = t92 + t220;
        const V t453 = t93 + t221;
        const V t454 = t92 - t220;
        const V t455 = t93 - t221;
        // complex block of 2
        const V t456 = t108 + t236;
        const V t457 = t109 + t237;
        const V t458 = t108 - t236;
        const V t459 = t109 - t237;
        // complex block of 2
        const V t460 = t124 + t252;
        const V t461 = t125 + t253;
        const V t462 = t124 - t252;
        const V t463 = t125 - t253;
        // complex block of 2
        const V t464 = t432 + t448;
        const V t465 = t433 + t449;
        const V t466 = t432 - t448;
        const V t467 = t433 - t449;
        // complex block of 2
        const V t468 = t436 + t452;
        const V t469 = t437 + t453;
        const V t470 = t436 - t452;
        const V t471 = t437 - t453;
        // complex block of 2
        const V t472 = t440 + t456;
        const V t473 = t441 + t457;
        const V t474 = t440 - t456;
        const V t475 = t441 - t457;
        // complex block of 2
        const V t476 = t444 + t460;
        const V t477 = t445 + t461;
        const V t478 = t444 - t460;
        const V t479 = t445 - t461;
        // complex block of 2
        const V t480 = t464 + t472;
        const V t481 = t465 + t473;
        const V t482 = t464 - t472;
        const V t483 = t465 - t473;
        // complex block of 2
        const V t484 = t468 + t476;
        const V t485 = t469 + t477;
        const V t486 = t468 - t476;
        const V t487 = t469 - t477;
        // complex block of 2
        const V t488 = t480 + t484;
        io.re(16, t488);
        const V t489 = t481 + t485;
        io.im(16, t489);
        const V t490 = t480 - t484;
        io.re(40, t490);
        const V t491 = t481 - t485;
        io.im(40, t491);
        // complex block of 2
        const V t492 = t482 - t487;
        io.re(28, t492);
        const V t493 = t483 + t486;
        io.im(28, t493);
        const V t494 = t482 + t487;
        io.re(4, t494);
        const V t495 = t483 - t486;
        io.im(4, t495);
        // complex block of 8, multiplier 3
        const V t496 = c[0] * t470;
        const V t497 = c[0] * t471;
        const V t498 = t496 + t497;
        const V t499 = t497 - t496;
        const V t500 = c[0] * t478;
        const V t501 = c[0] * t479;
        const V t502 = t500 + t501;
        const V t503 = t501 - t500;
        // complex block of 2
        const V t504 = t466 - t475;
        const V t505 = t467 + t474;
        const V t506 = t466 + t475;
        const V t507 = t467 - t474;
        // complex block of 2
        const V t508 = t499 + t502;
        const V t509 = t503 - t498;
        const V t510 = t499 - t502;
        const V t511 = t498 + t503;
        // complex block of 2
        const V t512 = t504 + t508;
        io.re(22, t512);
        const V t513 = t505 + t509;
        io.im(22, t513);
        const V t514 = t504 - t508;
        io.re(46, t514);
        const V t515 = t505 - t509;
        io.im(46, t515);
        // complex block of 2
        const V t516 = t506 + t511;
        io.re(34, t516);
        const V t517 = t507 + t510;
        io.im(34, t517);
        const V t518 = t506 - t511;
        io.re(10, t518);
        const V t519 = t507 - t510;
        io.im(10, t519);
        // complex block of 16, multiplier 3
        const V t520 = c[3] * t439;
        const V t521 = c[4] * t438;
        const V t522 = t521 + t520;
        const V t523 = c[3] * t438;
        const V t524 = c[4] * t439;
        const V t525 = t524 - t523;
        const V t526 = c[0] * t442;
        const V t527 = c[0] * t443;
        const V t528 = t526 + t527;
        const V t529 = t527 - t526;
        const V t530 = c[4] * t447;
        const V t531 = c[3] * t446;
        const V t532 = t531 + t530;
        const V t533 = c[4] * t446;
        const V t534 = c[3] * t447;
        const V t535 = t533 - t534;
        const V t536 = c[4] * t455;
        const V t537 = c[3] * t454;
        const V t538 = t537 - t536;
        const V t539 = c[4] * t454;
        const V t540 = c[3] * t455;
        const V t541 = t540 + t539;
        const V t542 = c[0] * t458;
        const V t543 = c[0] * t459;
        const V t544 = t542 + t543;
        const V t545 = t543 - t542;
        const V t546 = c[3] * t463;
        const V t547 = c[4] * t462;
        const V t548 = t546 - t547;
        const V t549 = c[3] * t462;
        const V t550 = c[4] * t463;
        const V t551 = t550 + t549;
        // complex block of 2
        const V t552 = t434 - t451;
        const V t553 = t435 + t450;
        const V t554 = t434 + t451;
        const V t555 = t435 - t450;
        // complex block of 2
        const V t556 = t522 + t538;
        const V t557 = t525 + t541;
        const V t558 = t522 - t538;
        const V t559 = t525 - t541;
        // complex block of 2
        const V t560 = t529 + t544;
        const V t561 = t545 - t528;
        const V t562 = t529 - t544;
        const V t563 = t528 + t545;
        // complex block of 2
        const V t564 = t548 - t532;
        const V t565 = t535 - t551;
        const V t566 = t532 + t548;
        const V t567 = t535 + t551;
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
        io.re(19, t576);
        const V t577 = t569 + t573;
        io.im(19, t577);
        const V t578 = t568 - t572;
        io.re(43, t578);
        const V t579 = t569 - t573;
        io.im(43, t579);
        // complex block of 2
        const V t580 = t570 - t575;
        io.re(31, t580);
        const V t581 = t571 + t574;
        io.im(31, t581);
        const V t582 = t570 + t575;
        io.re(7, t582);
        const V t583 = t571 - t574;
        io.im(7, t583);
        // complex block of 8, multiplier 3
        const V t584 = c[0] * t558;
        const V t585 = c[0] * t559;
        const V t586 = t584 + t585;
        const V t587 = t585 - t584;
        const V t588 = c[0] * t566;
        const V t589 = c[0] * t567;
        const V t590 = t589 - t588;
        const V t591 = t589 + t588;
        // complex block of 2
        const V t592 = t554 + t563;
        const V t593 = t555 + t562;
        const V t594 = t554 - t563;
        const V t595 = t555 - t562;
        // complex block of 2
        const V t596 = t587 + t590;
        const V t597 = t591 - t586;
        const V t598 = t587 - t590;
        const V t599 = t586 + t591;
        // complex block of 2
        const V t600 = t592 + t596;
        io.re(25, t600);
        const V t601 = t593 + t597;
        io.im(25, t601);
        const V t602 = t592 - t596;
        io.re(1, t602);
        const V t603 = t593 - t597;
        io.im(1, t603);
        // complex block of 2
        const V t604 = t594 + t599;
        io.re(37, t604);
        const V t605 = t595 + t598;
        io.im(37, t605);
        const V t606 = t594 - t599;
        io.re(13, t606);
        const V t607 = t595 - t598;
        io.im(13, t607);
        // complex block of 2
        const V t608 = t14 + t142;
        const V t609 = t15 + t143;
        const V t610 = t14 - t142;
        const V t611 = t15 - t143;
        // complex block of 2
        const V t612 = t30 + t158;
        const V t613 = t31 + t159;
        const V t614 = t30 - t158;
        const V t615 = t31 - t159;
        // complex block of 2
        const V t616 = t46 + t174;
        const V t617 = t47 + t175;
        const V t618 = t46 - t174;
        const V t619 = t47 - t175;
        // complex block of 2
        const V t620 = t62 + t190;
        const V t621 = t63 + t191;
        const V t622 = t62 - t190;
        const V t623 = t63 - t191;
        // complex block of 2
        const V t624 = t78 + t206;
        const V t625 = t79 + t207;
        const V t626 = t78 - t206;
        const V t627 = t79 - t207;
        // complex block of 2
        const V t628 = t94 + t222;
        const V t629 = t95 + t223;
        const V t630 = t94 - t222;
        const V t631 = t95 - t223;
        // complex block of 2
        const V t632 = t110 + t238;
        const V t633 = t111 + t239;
        const V t634 = t110 - t238;
        const V t635 = t111 - t239;
        // complex block of 2
        const V t636 = t126 + t254;
        const V t637 = t127 + t255;
        const V t638 = t126 - t254;
        const V t639 = t127 - t255;
        // complex block of 2
        const V t640 = t608 + t624;
        const V t641 = t609 + t625;
        const V t642 = t608 - t624;
        const V t643 = t609 - t625;
        // complex block of 2
        const V t644 = t612 + t628;
        const V t645 = t613 + t629;
        const V t646 = t612 - t628;
        const V t647 = t613 - t629;
        // complex block of 2
        const V t648 = t616 + t632;
        const V t649 = t617 + t633;
        const V t650 = t616 - t632;
        const V t651 = t617 - t633;
        // complex block of 2
        const V t652 = t620 + t636;
        const V t653 = t621 + t637;
        const V t654 = t620 - t636;
        const V t655 = t621 - t637;
        // complex block of 2
        const V t656 = t640 + t648;
        const V t657 = t641 + t649;
        const V t658 = t640 - t648;
        const V t659 = t641 - t649;
        // complex block of 2
        const V t660 = t644 + t652;
        const V t661 = t645 + t653;
        const V t662 = t644 - t652;
        const V t663 = t645 - t653;
        // complex block of 2
        const V t664 = t656 + t660;
        io.re(32, t664);
        const V t665 = t657 + t661;
        io.im(32, t665);
        const V t666 = t656 - t660;
        io.re(8, t666);
        const V t667 = t657 - t661;
        io.im(8, t667);
        // complex block of 2
        const V t668 = t658 - t663;
        io.re(44, t668);
        const V t669 = t659 + t662;
        io.im(44, t669);
        const V t670 = t658 + t663;
        io.re(20, t670);
        const V t671 = t659 - t662;
        io.im(20, t671);
        // complex block of 8, multiplier 3
        const V t672 = c[0] * t646;
        const V t673 = c[0] * t647;
        const V t674 = t672 + t673;
        const V t675 = t673 - t672;
        const V t676 = c[0] * t654;
        const V t677 = c[0] * t655;
        const V t678 = t676 + t677;
        const V t679 = t677 - t676;
        // complex block of 2
        const V t680 = t642 - t651;
        const V t681 = t643 + t650;
        const V t682 = t642 + t651;
        const V t683 = t643 - t650;
        // complex block of 2
        const V t684 = t675 + t678;
        const V t685 = t679 - t674;
        const V t686 = t675 - t678;
        const V t687 = t674 + t679;
        // complex block of 2
        const V t688 = t680 + t684;
        io.re(38, t688);
        const V t689 = t681 + t685;
        io.im(38, t689);
        const V t690 = t680 - t684;
        io.re(14, t690);
        const V t691 = t681 - t685;
        io.im(14, t691);
        // complex block of 2
        const V t692 = t682 + t687;
        io.re(2, t692);
        const V t693 = t683 + t686;
        io.im(2, t693);
        const V t694 = t682 - t687;
        io.re(26, t694);
        const V t695 = t683 - t686;
        io.im(26, t695);
        // complex block of 16, multiplier 3
        const V t696 = c[3] * t615;
        const V t697 = c[4] * t614;
        const V t698 = t697 + t696;
        const V t699 = c[3] * t614;
        const V t700 = c[4] * t615;
        const V t701 = t700 - t699;
        const V t702 = c[0] * t618;
        const V t703 = c[0] * t619;
        const V t704 = t702 + t703;
        const V t705 = t703 - t702;
        const V t706 = c[4] * t623;
        const V t707 = c[3] * t622;
        const V t708 = t707 + t706;
        const V t709 = c[4] * t622;
        const V t710 = c[3] * t623;
        const V t711 = t709 - t710;
        const V t712 = c[4] * t631;
        const V t713 = c[3] * t630;
        const V t714 = t713 - t712;
        const V t715 = c[4] * t630;
        const V t716 = c[3] * t631;
        const V t717 = t716 + t715;
        const V t718 = c[0] * t634;
        const V t719 = c[0] * t635;
        const V t720 = t718 + t719;
        const V t721 = t719 - t718;
        const V t722 = c[3] * t639;
        const V t723 = c[4] * t638;
        const V t724 = t722 - t723;
        const V t725 = c[3] * t638;
        const V t726 = c[4] * t639;
        const V t727 = t726 + t725;
        // complex block of 2
        const V t728 = t610 - t627;
        const V t729 = t611 + t626;
        const V t730 = t610 + t627;
        const V t731 = t611 - t626;
        // complex block of 2
        const V t732 = t698 + t714;
        const V t733 = t701 + t717;
        const V t734 = t698 - t714;
        const V t735 = t701 - t717;
        // complex block of 2
        const V t736 = t705 + t720;
        const V t737 = t721 - t704;
        const V t738 = t705 - t720;
        const V t739 = t704 + t721;
        // complex block of 2
        const V t740 = t724 - t708;
        const V t741 = t711 - t727;
        const V t742 = t708 + t724;
        const V t743 = t711 + t727;
        // complex block of 2
        const V t744 = t728 + t736;
        const V t745 = t729 + t737;
        const V t746 = t728 - t736;
        const V t747 = t729 - t737;
        // complex block of 2
        const V t748 = t732 + t740;
        const V t749 = t733 + t741;
        const V t750 = t732 - t740;
        const V t751 = t733 - t741;
        // complex block of 2
        const V t752 = t744 + t748;
        io.re(35, t752);
        const V t753 = t745 + t749;
        io.im(35, t753);
        const V t754 = t744 - t748;
        io.re(11, t754);
        const V t755 = t745 - t749;
        io.im(11, t755);
        // complex block of 2
        const V t756 = t746 - t751;
        io.re(47, t756);
        const V t757 = t747 + t750;
        io.im(47, t757);
        const V t758 = t746 + t751;
        io.re(23, t758);
        const V t759 = t747 - t750;
        io.im(23, t759);
        // complex block of 8, multiplier 3
        const V t760 = c[0] * t734;
        const V t761 = c[0] * t735;
        const V t762 = t760 + t761;
        const V t763 = t761 - t760;
        const V t764 = c[0] * t742;
        const V t765 = c[0] * t743;
        const V t766 = t765 - t764;
        const V t767 = t765 + t764;
        // complex block of 2
        const V t768 = t730 + t739;
        const V t769 = t731 + t738;
        const V t770 = t730 - t739;
        const V t771 = t731 - t738;
        // complex block of 2
        const V t772 = t763 + t766;
        const V t773 = t767 - t762;
        const V t774 = t763 - t766;
        const V t775 = t762 + t767;
        // complex block of 2
        const V t776 = t768 + t772;
        io.re(41, t776);
        const V t777 = t769 + t773;
        io.im(41, t777);
        const V t778 = t768 - t772;
        io.re(17, t778);
        const V t779 = t769 - t773;
        io.im(17, t779);
        // complex block of 2
        const V t780 = t770 + t775;
        io.re(5, t780);
        const V t781 = t771 + t774;
        io.im(5, t781);
        const V t782 = t770 - t775;
        io.re(29, t782);
        const V t783 = t771 - t774;
        io.im(29, t783);
    }
};

}  // namespace zulg
