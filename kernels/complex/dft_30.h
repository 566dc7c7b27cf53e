// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 30.
// Complex DFT of 30 points, prime-factor, order 5, 3, 2.
// 198 additions, 174 subtractions, 136 multiplications (196 with `scale`); 6 constants; 74 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<30> {
    static constexpr int steps = 568;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 5
        const V x6r = io.re(6);
        const V x24r = io.re(24);
        const V t0 = x6r + x24r;
        const V t1 = x6r - x24r;
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t0;
        const V x18r = io.re(18);
        const V x12r = io.re(12);
        const V t4 = x18r + x12r;
        const V t5 = x18r - x12r;
        const V t6 = c[1] * t4;
        const V t7 = t0 + t4;
        const V x0r = io.re(0);
        const V t8 = t7 + x0r;
        const V t9 = t2 - t6;
        const V t10 = t9 + x0r;
        const V t11 = c[2] * t1;
        const V t12 = c[3] * t5;
        const V t13 = t11 - t12;
        const V t14 = x0r - t3;
        const V t15 = c[0] * t4;
        const V t16 = t14 + t15;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t5;
        const V t19 = t17 + t18;
        const V x6i = io.im(6);
        const V x24i = io.im(24);
        const V t20 = x6i + x24i;
        const V t21 = x6i - x24i;
        const V t22 = c[0] * t20;
        const V t23 = c[1] * t20;
        const V x18i = io.im(18);
        const V x12i = io.im(12);
        const V t24 = x18i + x12i;
        const V t25 = x18i - x12i;
        const V t26 = c[1] * t24;
        const V t27 = t20 + t24;
        const V x0i = io.im(0);
        const V t28 = t27 + x0i;
        const V t29 = t22 - t26;
        const V t30 = t29 + x0i;
        const V t31 = c[2] * t21;
        const V t32 = c[3] * t25;
        const V t33 = t31 - t32;
        const V t34 = x0i - t23;
        const V t35 = c[0] * t24;
        const V t36 = t34 + t35;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t25;
        const V t39 = t37 + t38;
        // complex block of 5
        const V x1r = io.re(1);
        const V x19r = io.re(19);
        const V t40 = x1r + x19r;
        const V t41 = x1r - x19r;
        const V x13r = io.re(13);
        const V x7r = io.re(7);
        const V t42 = x13r + x7r;
        const V t43 = x13r - x7r;
        const V t44 = t40 + t42;
        const V t45 = c[0] * t40;
        const V t46 = c[1] * t42;
        const V t47 = c[2] * t41;
        const V t48 = c[3] * t43;
        const V t49 = c[1] * t40;
        const V t50 = c[0] * t42;
        const V t51 = c[3] * t41;
        const V t52 = c[2] * t43;
        const V x1i = io.im(1);
        const V x19i = io.im(19);
        const V t53 = x1i + x19i;
        const V t54 = x1i - x19i;
        const V x13i = io.im(13);
        const V x7i = io.im(7);
        const V t55 = x13i + x7i;
        const V t56 = x13i - x7i;
        const V t57 = t53 + t55;
        const V t58 = c[0] * t53;
        const V t59 = c[1] * t55;
        const V t60 = c[2] * t54;
        const V t61 = c[3] * t56;
        const V t62 = c[1] * t53;
        const V t63 = c[0] * t55;
        const V t64 = c[3] * t54;
        const V t65 = c[2] * t56;
        // complex block of 5
        const V x11r = io.re(11);
        const V x29r = io.re(29);
        const V t66 = x11r + x29r;
        const V t67 = x11r - x29r;
        const V x23r = io.re(23);
        const V x17r = io.re(17);
        const V t68 = x23r + x17r;
        const V t69 = x23r - x17r;
        const V t70 = t66 + t68;
        const V t71 = c[0] * t66;
        const V t72 = c[1] * t68;
        const V t73 = c[2] * t67;
        const V t74 = c[3] * t69;
        const V t75 = c[1] * t66;
        const V t76 = c[0] * t68;
        const V t77 = c[3] * t67;
        const V t78 = c[2] * t69;
        const V x11i = io.im(11);
        const V x29i = io.im(29);
        const V t79 = x11i + x29i;
        const V t80 = x11i - x29i;
        const V x23i = io.im(23);
        const V x17i = io.im(17);
        const V t81 = x23i + x17i;
        const V t82 = x23i - x17i;
        const V t83 = t79 + t81;
        const V t84 = c[0] * t79;
        const V t85 = c[1] * t81;
        const V t86 = c[2] * t80;
        const V t87 = c[3] * t82;
        const V t88 = c[1] * t79;
        const V t89 = c[0] * t81;
        const V t90 = c[3] * t80;
        const V t91 = c[2] * t82;
        // complex block of 5
        const V x25r = io.re(25);
        const V t92 = t44 + x25r;
        // complex block of 5
        const V x5r = io.re(5);
        const V t93 = t70 + x5r;
        // complex block of 3
        const V t94 = t92 + t93;
        // complex block of 5
        const V x25i = io.im(25);
        const V t95 = t57 + x25i;
        // complex block of 5
        const V x5i = io.im(5);
        const V t96 = t83 + x5i;
        // complex block of 3
        const V t97 = t95 + t96;
        // complex block of 5
        const V t98 = t45 - t46;
        const V t99 = t98 + x25r;
        const V t100 = t60 - t61;
        const V t101 = t99 + t100;
        const V t102 = t99 - t100;
        const V t103 = t58 - t59;
        const V t104 = t103 + x25i;
        const V t105 = t47 - t48;
        const V t106 = t104 - t105;
        const V t107 = t104 + t105;
        const V t108 = x25r - t49;
        const V t109 = t108 + t50;
        const V t110 = t64 + t65;
        const V t111 = t109 + t110;
        const V t112 = t109 - t110;
        const V t113 = x25i - t62;
        const V t114 = t113 + t63;
        const V t115 = t51 + t52;
        const V t116 = t114 - t115;
        const V t117 = t114 + t115;
        // complex block of 5
        const V t118 = t71 - t72;
        const V t119 = t118 + x5r;
        const V t120 = t86 - t87;
        const V t121 = t119 + t120;
        const V t122 = t119 - t120;
        const V t123 = t84 - t85;
        const V t124 = t123 + x5i;
        const V t125 = t73 - t74;
        const V t126 = t124 - t125;
        const V t127 = t124 + t125;
        const V t128 = x5r - t75;
        const V t129 = t128 + t76;
        const V t130 = t90 + t91;
        const V t131 = t129 + t130;
        const V t132 = t129 - t130;
        const V t133 = x5i - t88;
        const V t134 = t133 + t89;
        const V t135 = t77 + t78;
        const V t136 = t134 - t135;
        const V t137 = t134 + t135;
        // complex block of 5
        const V x8r = io.re(8);
        const V x2r = io.re(2);
        const V t138 = x8r + x2r;
        const V t139 = x8r - x2r;
        const V x26r = io.re(26);
        const V x14r = io.re(14);
        const V t140 = x26r + x14r;
        const V t141 = x26r - x14r;
        const V t142 = t140 + t138;
        const V t143 = c[0] * t140;
        const V t144 = c[1] * t138;
        const V t145 = c[2] * t141;
        const V t146 = c[3] * t139;
        const V t147 = c[1] * t140;
        const V t148 = c[0] * t138;
        const V t149 = c[3] * t141;
        const V t150 = c[2] * t139;
        const V x8i = io.im(8);
        const V x2i = io.im(2);
        const V t151 = x8i + x2i;
        const V t152 = x8i - x2i;
        const V x26i = io.im(26);
        const V x14i = io.im(14);
        const V t153 = x26i + x14i;
        const V t154 = x26i - x14i;
        const V t155 = t153 + t151;
        const V t156 = c[0] * t153;
        const V t157 = c[1] * t151;
        const V t158 = c[2] * t154;
        const V t159 = c[3] * t152;
        const V t160 = c[1] * t153;
        const V t161 = c[0] * t151;
        const V t162 = c[3] * t154;
        const V t163 = c[2] * t152;
        // complex block of 5
        const V x16r = io.re(16);
        const V x4r = io.re(4);
        const V t164 = x16r + x4r;
        const V t165 = x16r - x4r;
        const V x28r = io.re(28);
        const V x22r = io.re(22);
        const V t166 = x28r + x22r;
        const V t167 = x28r - x22r;
        const V t168 = t164 + t166;
        const V t169 = c[0] * t164;
        const V t170 = c[1] * t166;
        const V t171 = c[2] * t165;
        const V t172 = c[3] * t167;
        const V t173 = c[1] * t164;
        const V t174 = c[0] * t166;
        const V t175 = c[3] * t165;
        const V t176 = c[2] * t167;
        const V x16i = io.im(16);
        const V x4i = io.im(4);
        const V t177 = x16i + x4i;
        const V t178 = x16i - x4i;
        const V x28i = io.im(28);
        const V x22i = io.im(22);
        const V t179 = x28i + x22i;
        const V t180 = x28i - x22i;
        const V t181 = t177 + t179;
        const V t182 = c[0] * t177;
        const V t183 = c[1] * t179;
        const V t184 = c[2] * t178;
        const V t185 = c[3] * t180;
        const V t186 = c[1] * t177;
        const V t187 = c[0] * t179;
        const V t188 = c[3] * t178;
        const V t189 = c[2] * t180;
        const V x10r = io.re(10);
        const V t190 = t168 + x10r;
        // complex block of 5
        const V x20r = io.re(20);
        const V t191 = t142 + x20r;
        // complex block of 3
        const V t192 = t190 + t191;
        // complex block of 5
        const V x10i = io.im(10);
        const V t193 = t181 + x10i;
        // complex block of 5
        const V x20i = io.im(20);
        const V t194 = t155 + x20i;
        // complex block of 3
        const V t195 = t193 + t194;
        // complex block of 5
        const V t196 = t169 - t170;
        const V t197 = t196 + x10r;
        const V t198 = t184 - t185;
        const V t199 = t197 + t198;
        const V t200 = t197 - t198;
        const V t201 = t182 - t183;
        const V t202 = t201 + x10i;
        const V t203 = t171 - t172;
        const V t204 = t202 - t203;
        const V t205 = t202 + t203;
        const V t206 = x10r - t173;
        const V t207 = t206 + t174;
        const V t208 = t188 + t189;
        const V t209 = t207 + t208;
        const V t210 = t207 - t208;
        const V t211 = x10i - t186;
        const V t212 = t211 + t187;
        const V t213 = t175 + t176;
        const V t214 = t212 - t213;
        const V t215 = t212 + t213;
        // complex block of 5
        const V t216 = t143 - t144;
        const V t217 = t216 + x20r;
        const V t218 = t158 - t159;
        const V t219 = t217 + t218;
        const V t220 = t217 - t218;
        const V t221 = t156 - t157;
        const V t222 = t221 + x20i;
        const V t223 = t145 - t146;
        const V t224 = t222 - t223;
        const V t225 = t222 + t223;
        const V t226 = x20r - t147;
        const V t227 = t226 + t148;
        const V t228 = t162 + t163;
        const V t229 = t227 + t228;
        const V t230 = t227 - t228;
        const V t231 = x20i - t160;
        const V t232 = t231 + t161;
        const V t233 = t149 + t150;
        const V t234 = t232 - t233;
        const V t235 = t232 + t233;
        // complex block of 5
        const V x3r = io.re(3);
        const V x27r = io.re(27);
        const V t236 = x3r + x27r;
        const V t237 = x3r - x27r;
        const V t238 = c[1] * t236;
        const V x21r = io.re(21);
        const V x9r = io.re(9);
        const V t239 = x21r + x9r;
        const V t240 = x21r - x9r;
        const V t241 = c[0] * t239;
        const V t242 = c[1] * t239;
        const V t243 = t239 + t236;
        const V x15r = io.re(15);
        const V t244 = t243 + x15r;
        const V t245 = t241 - t238;
        const V t246 = t245 + x15r;
        const V t247 = c[2] * t240;
        const V t248 = c[3] * t237;
        const V t249 = t247 - t248;
        const V t250 = x15r - t242;
        const V t251 = c[0] * t236;
        const V t252 = t250 + t251;
        const V t253 = c[3] * t240;
        const V t254 = c[2] * t237;
        const V t255 = t253 + t254;
        const V x3i = io.im(3);
        const V x27i = io.im(27);
        const V t256 = x3i + x27i;
        const V t257 = x3i - x27i;
        const V t258 = c[1] * t256;
        const V x21i = io.im(21);
        const V x9i = io.im(9);
        const V t259 = x21i + x9i;
        const V t260 = x21i - x9i;
        const V t261 = c[0] * t259;
        const V t262 = c[1] * t259;
        const V t263 = t259 + t256;
        const V x15i = io.im(15);
        const V t264 = t263 + x15i;
        const V t265 = t261 - t258;
        const V t266 = t265 + x15i;
        const V t267 = c[2] * t260;
        const V t268 = c[3] * t257;
        const V t269 = t267 - t268;
        const V t270 = x15i - t262;
        const V t271 = c[0] * t256;
        const V t272 = t270 + t271;
        const V t273 = c[3] * t260;
        const V t274 = c[2] * t257;
        const V t275 = t273 + t274;
        // complex block of 5
        const V t276 = t10 + t33;
        // complex block of 3
        const V t277 = t199 + t219;
        const V t278 = c[4] * t277;
        const V t279 = t277 + t276;
        const V t280 = t276 - t278;
        // complex block of 5
        const V t281 = t246 + t269;
        // complex block of 3
        const V t282 = t101 + t121;
        const V t283 = c[4] * t282;
        const V t284 = t282 + t281;
        const V t285 = t281 - t283;
        // complex block of 3
        const V t286 = t204 - t224;
        const V t287 = c[5] * t286;
        // complex block of 3
        const V t288 = t106 - t126;
        const V t289 = c[5] * t288;
        // complex block of 3
        const V t290 = t280 + t287;
        // complex block of 3
        const V t291 = t285 + t289;
        // complex block of 2
        const V t292 = t290 + t291;
        io.re(16, t292);
        const V t293 = t290 - t291;
        io.re(1, t293);
        // complex block of 3
        const V t294 = t280 - t287;
        // complex block of 3
        const V t295 = t285 - t289;
        // complex block of 2
        const V t296 = t294 + t295;
        io.re(26, t296);
        const V t297 = t294 - t295;
        io.re(11, t297);
        // complex block of 2
        const V t298 = t279 + t284;
        io.re(6, t298);
        const V t299 = t279 - t284;
        io.re(21, t299);
        // complex block of 5
        const V t300 = t30 - t13;
        // complex block of 3
        const V t301 = t204 + t224;
        const V t302 = c[4] * t301;
        const V t303 = t301 + t300;
        const V t304 = t300 - t302;
        // complex block of 5
        const V t305 = t266 - t249;
        // complex block of 3
        const V t306 = t106 + t126;
        const V t307 = c[4] * t306;
        const V t308 = t306 + t305;
        const V t309 = t305 - t307;
        // complex block of 3
        const V t310 = t199 - t219;
        const V t311 = c[5] * t310;
        // complex block of 3
        const V t312 = t101 - t121;
        const V t313 = c[5] * t312;
        // complex block of 3
        const V t314 = t304 - t311;
        // complex block of 3
        const V t315 = t309 - t313;
        // complex block of 2
        const V t316 = t314 + t315;
        io.im(16, t316);
        const V t317 = t314 - t315;
        io.im(1, t317);
        // complex block of 3
        const V t318 = t304 + t311;
        // complex block of 3
        const V t319 = t309 + t313;
        // complex block of 2
        const V t320 = t318 + t319;
        io.im(26, t320);
        const V t321 = t318 - t319;
        io.im(11, t321);
        // complex block of 2
        const V t322 = t303 + t308;
        io.im(6, t322);
        const V t323 = t303 - t308;
        io.im(21, t323);
        // complex block of 5
        const V t324 = t10 - t33;
        // complex block of 3
        const V t325 = t200 + t220;
        const V t326 = c[4] * t325;
        const V t327 = t325 + t324;
        const V t328 = t324 - t326;
        // complex block of 5
        const V t329 = t246 - t269;
        // complex block of 3
        const V t330 = t102 + t122;
        const V t331 = c[4] * t330;
        const V t332 = t330 + t329;
        const V t333 = t329 - t331;
        // complex block of 3
        const V t334 = t205 - t225;
        const V t335 = c[5] * t334;
        // complex block of 3
        const V t336 = t107 - t127;
        const V t337 = c[5] * t336;
        // complex block of 3
        const V t338 = t328 + t335;
        // complex block of 3
        const V t339 = t333 + t337;
        // complex block of 2
        const V t340 = t338 + t339;
        io.re(4, t340);
        const V t341 = t338 - t339;
        io.re(19, t341);
        // complex block of 3
        const V t342 = t328 - t335;
        // complex block of 3
        const V t343 = t333 - t337;
        // complex block of 2
        const V t344 = t342 + t343;
        io.re(14, t344);
        const V t345 = t342 - t343;
        io.re(29, t345);
        // complex block of 2
        const V t346 = t327 + t332;
        io.re(24, t346);
        const V t347 = t327 - t332;
        io.re(9, t347);
        // complex block of 5
        const V t348 = t30 + t13;
        // complex block of 3
        const V t349 = t205 + t225;
        const V t350 = c[4] * t349;
        const V t351 = t349 + t348;
        const V t352 = t348 - t350;
        // complex block of 5
        const V t353 = t266 + t249;
        // complex block of 3
        const V t354 = t107 + t127;
        const V t355 = c[4] * t354;
        const V t356 = t354 + t353;
        const V t357 = t353 - t355;
        // complex block of 3
        const V t358 = t200 - t220;
        const V t359 = c[5] * t358;
        // complex block of 3
        const V t360 = t102 - t122;
        const V t361 = c[5] * t360;
        // complex block of 3
        const V t362 = t352 - t359;
        // complex block of 3
        const V t363 = t357 - t361;
        // complex block of 2
        const V t364 = t362 + t363;
        io.im(4, t364);
        const V t365 = t362 - t363;
        io.im(19, t365);
        // complex block of 3
        const V t366 = t352 + t359;
        // complex block of 3
        const V t367 = t357 + t361;
        // complex block of 2
        const V t368 = t366 + t367;
        io.im(14, t368);
        const V t369 = t366 - t367;
        io.im(29, t369);
        // complex block of 2
        const V t370 = t351 + t356;
        io.im(24, t370);
        const V t371 = t351 - t356;
        io.im(9, t371);
        // complex block of 5
        const V t372 = t16 + t39;
        // complex block of 3
        const V t373 = t209 + t229;
        const V t374 = c[4] * t373;
        const V t375 = t373 + t372;
        const V t376 = t372 - t374;
        // complex block of 5
        const V t377 = t252 + t275;
        // complex block of 3
        const V t378 = t111 + t131;
        const V t379 = c[4] * t378;
        const V t380 = t378 + t377;
        const V t381 = t377 - t379;
        // complex block of 3
        const V t382 = t214 - t234;
        const V t383 = c[5] * t382;
        // complex block of 3
        const V t384 = t116 - t136;
        const V t385 = c[5] * t384;
        // complex block of 3
        const V t386 = t376 + t383;
        // complex block of 3
        const V t387 = t381 + t385;
        // complex block of 2
        const V t388 = t386 + t387;
        io.re(22, t388);
        const V t389 = t386 - t387;
        io.re(7, t389);
        // complex block of 3
        const V t390 = t376 - t383;
        // complex block of 3
        const V t391 = t381 - t385;
        // complex block of 2
        const V t392 = t390 + t391;
        io.re(2, t392);
        const V t393 = t390 - t391;
        io.re(17, t393);
        // complex block of 2
        const V t394 = t375 + t380;
        io.re(12, t394);
        const V t395 = t375 - t380;
        io.re(27, t395);
        // complex block of 5
        const V t396 = t36 - t19;
        // complex block of 3
        const V t397 = t214 + t234;
        const V t398 = c[4] * t397;
        const V t399 = t397 + t396;
        const V t400 = t396 - t398;
        // complex block of 5
        const V t401 = t272 - t255;
        // complex block of 3
        const V t402 = t116 + t136;
        const V t403 = c[4] * t402;
        const V t404 = t402 + t401;
        const V t405 = t401 - t403;
        // complex block of 3
        const V t406 = t209 - t229;
        const V t407 = c[5] * t406;
        // complex block of 3
        const V t408 = t111 - t131;
        const V t409 = c[5] * t408;
        // complex block of 3
        const V t410 = t400 - t407;
        // complex block of 3
        const V t411 = t405 - t409;
        // complex block of 2
        const V t412 = t410 + t411;
        io.im(22, t412);
        const V t413 = t410 - t411;
        io.im(7, t413);
        // complex block of 3
        const V t414 = t400 + t407;
        // complex block of 3
        const V t415 = t405 + t409;
        // complex block of 2
        const V t416 = t414 + t415;
        io.im(2, t416);
        const V t417 = t414 - t415;
        io.im(17, t417);
        // complex block of 2
        const V t418 = t399 + t404;
        io.im(12, t418);
        const V t419 = t399 - t404;
        io.im(27, t419);
        // complex block of 5
        const V t420 = t16 - t39;
        // complex block of 3
        const V t421 = t210 + t230;
        const V t422 = c[4] * t421;
        const V t423 = t421 + t420;
        const V t424 = t420 - t422;
        // complex block of 5
        const V t425 = t252 - t275;
        // complex block of 3
        const V t426 = t112 + t132;
        const V t427 = c[4] * t426;
        const V t428 = t426 + t425;
        const V t429 = t425 - t427;
        // complex block of 3
        const V t430 = t215 - t235;
        const V t431 = c[5] * t430;
        // complex block of 3
        const V t432 = t117 - t137;
        const V t433 = c[5] * t432;
        // complex block of 3
        const V t434 = t424 + t431;
        // complex block of 3
        const V t435 = t429 + t433;
        // complex block of 2
        const V t436 = t434 + t435;
        io.re(28, t436);
        const V t437 = t434 - t435;
        io.re(13, t437);
        // complex block of 3
        const V t438 = t424 - t431;
        // complex block of 3
        const V t439 = t429 - t433;
        // complex block of 2
        const V t440 = t438 + t439;
        io.re(8, t440);
        const V t441 = t438 - t439;
        io.re(23, t441);
        // complex block of 2
        const V t442 = t423 + t428;
        io.re(18, t442);
        const V t443 = t423 - t428;
        io.re(3, t443);
        // complex block of 5
        const V t444 = t36 + t19;
        // complex block of 3
        const V t445 = t215 + t235;
        const V t446 = c[4] * t445;
        const V t447 = t445 + t444;
        const V t448 = t444 - t446;
        // complex block of 5
        const V t449 = t272 + t255;
        // complex block of 3
        const V t450 = t117 + t137;
        const V t451 = c[4] * t450;
        const V t452 = t450 + t449;
        const V t453 = t449 - t451;
        // complex block of 3
        const V t454 = t210 - t230;
        const V t455 = c[5] * t454;
        // complex block of 3
        const V t456 = t112 - t132;
        const V t457 = c[5] * t456;
        // complex block of 3
        const V t458 = t448 - t455;
        // complex block of 3
        const V t459 = t453 - t457;
        // complex block of 2
        const V t460 = t458 + t459;
        io.im(28, t460);
        const V t461 = t458 - t459;
        io.im(13, t461);
        // complex block of 3
        const V t462 = t448 + t455;
        // complex block of 3
        const V t463 = t453 + t457;
        // complex block of 2
        const V t464 = t462 + t463;
        io.im(8, t464);
        const V t465 = t462 - t463;
        io.im(23, t465);
        // complex block of 2
        const V t466 = t447 + t452;
        io.im(18, t466);
        const V t467 = t447 - t452;
        io.im(3, t467);
        // complex block of 3
        const V t468 = t190 - t191;
        const V t469 = c[5] * t468;
        const V t470 = c[4] * t195;
        const V t471 = t28 - t470;
        // complex block of 3
        const V t472 = t92 - t93;
        const V t473 = c[5] * t472;
        const V t474 = c[4] * t97;
        const V t475 = t264 - t474;
        // complex block of 3
        const V t476 = t471 - t469;
        // complex block of 3
        const V t477 = t475 - t473;
        // complex block of 2
        const V t478 = t476 + t477;
        io.im(10, t478);
        const V t479 = t476 - t477;
        io.im(25, t479);
        // complex block of 3
        const V t480 = t471 + t469;
        // complex block of 3
        const V t481 = t475 + t473;
        // complex block of 2
        const V t482 = t480 + t481;
        io.im(20, t482);
        const V t483 = t480 - t481;
        io.im(5, t483);
        // complex block of 3
        const V t484 = t193 - t194;
        const V t485 = c[5] * t484;
        const V t486 = c[4] * t192;
        const V t487 = t8 - t486;
        // complex block of 3
        const V t488 = t95 - t96;
        const V t489 = c[5] * t488;
        const V t490 = c[4] * t94;
        const V t491 = t244 - t490;
        // complex block of 3
        const V t492 = t487 + t485;
        // complex block of 3
        const V t493 = t491 + t489;
        // complex block of 2
        const V t494 = t492 + t493;
        io.re(10, t494);
        const V t495 = t492 - t493;
        io.re(25, t495);
        // complex block of 3
        const V t496 = t487 - t485;
        // complex block of 3
        const V t497 = t491 - t489;
        // complex block of 2
        const V t498 = t496 + t497;
        io.re(20, t498);
        const V t499 = t496 - t497;
        io.re(5, t499);
        // complex block of 3
        const V t500 = t192 + t8;
        // complex block of 3
        const V t501 = t94 + t244;
        // complex block of 2
        const V t502 = t500 + t501;
        io.re(0, t502);
        const V t503 = t500 - t501;
        io.re(15, t503);
        // complex block of 3
        const V t504 = t195 + t28;
        // complex block of 3
        const V t505 = t97 + t264;
        // complex block of 2
        const V t506 = t504 + t505;
        io.im(0, t506);
        const V t507 = t504 - t505;
        io.im(15, t507);
    }
};

}  // namespace zulg
