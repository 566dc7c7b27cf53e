// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 52.
// Inverse DFT to 52 real points, prime-factor 13, 4.
// 207 additions, 207 subtractions, 210 multiplications (262 with `scale`); 19 constants; 57 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<52> {
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.5;  // -cos 2 pi 2/3
    static constexpr double c2 = 0.8660254037844386;  // -sin 2 pi 2/3
    static constexpr double c3 = 0.08333333333333333;  // 1/12
    static constexpr double c4 = 0.015496188988565054;  // P[1] of 13
    static constexpr double c5 = 0.6007253775544544;  // -Q[1] of 13
    static constexpr double c6 = 0.6008758031820526;  // -Q[2] of 13
    static constexpr double c7 = 0.007705858903092426;  // P[2] of 13
    static constexpr double c8 = 0.5751407294740031;  // P[3] of 13
    static constexpr double c9 = 0.1741386011521359;  // Q[3] of 13
    static constexpr double c10 = 0.15924941320823024;  // -Q[4] of 13
    static constexpr double c11 = 0.5794400189009605;  // -P[4] of 13
    static constexpr double c12 = 0.3203288761978803;  // P[5] of 13
    static constexpr double c13 = 0.5084294662830964;  // -Q[5] of 13
    static constexpr double c14 = 0.3004626062886658;  // beta of 13
    static constexpr double c15 = 0.5018097763375671;  // -sin 2 pi 2/3 times -P[4] of 13
    static constexpr double c16 = 0.1379140373760925;  // -sin 2 pi 2/3 times -Q[4] of 13
    static constexpr double c17 = 0.00667346956805653;  // -sin 2 pi 2/3 times P[2] of 13
    static constexpr double c18 = 0.520373710075036;  // -sin 2 pi 2/3 times -Q[2] of 13

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = c0 * x1r;
        const V x1i = io.im(1);
        const V t1 = c0 * x1i;
        const V x2r = io.re(2);
        const V t2 = c0 * x2r;
        const V x2i = io.im(2);
        const V t3 = c0 * x2i;
        const V x3r = io.re(3);
        const V t4 = c0 * x3r;
        const V x3i = io.im(3);
        const V t5 = c0 * x3i;
        const V x4r = io.re(4);
        const V t6 = c0 * x4r;
        const V x4i = io.im(4);
        const V t7 = c0 * x4i;
        const V x5r = io.re(5);
        const V t8 = c0 * x5r;
        const V x5i = io.im(5);
        const V t9 = c0 * x5i;
        const V x6r = io.re(6);
        const V t10 = c0 * x6r;
        const V x6i = io.im(6);
        const V t11 = c0 * x6i;
        const V x7r = io.re(7);
        const V t12 = c0 * x7r;
        const V x7i = io.im(7);
        const V t13 = c0 * x7i;
        const V x8r = io.re(8);
        const V t14 = c0 * x8r;
        const V x8i = io.im(8);
        const V t15 = c0 * x8i;
        const V x9r = io.re(9);
        const V t16 = c0 * x9r;
        const V x9i = io.im(9);
        const V t17 = c0 * x9i;
        const V x10r = io.re(10);
        const V t18 = c0 * x10r;
        const V x10i = io.im(10);
        const V t19 = c0 * x10i;
        const V x11r = io.re(11);
        const V t20 = c0 * x11r;
        const V x11i = io.im(11);
        const V t21 = c0 * x11i;
        const V x12r = io.re(12);
        const V t22 = c0 * x12r;
        const V x12i = io.im(12);
        const V t23 = c0 * x12i;
        const V x13r = io.re(13);
        const V t24 = c0 * x13r;
        const V x13i = io.im(13);
        const V t25 = c0 * x13i;
        const V x14r = io.re(14);
        const V t26 = c0 * x14r;
        const V x14i = io.im(14);
        const V t27 = c0 * x14i;
        const V x15r = io.re(15);
        const V t28 = c0 * x15r;
        const V x15i = io.im(15);
        const V t29 = c0 * x15i;
        const V x16r = io.re(16);
        const V t30 = c0 * x16r;
        const V x16i = io.im(16);
        const V t31 = c0 * x16i;
        const V x17r = io.re(17);
        const V t32 = c0 * x17r;
        const V x17i = io.im(17);
        const V t33 = c0 * x17i;
        const V x18r = io.re(18);
        const V t34 = c0 * x18r;
        const V x18i = io.im(18);
        const V t35 = c0 * x18i;
        const V x19r = io.re(19);
        const V t36 = c0 * x19r;
        const V x19i = io.im(19);
        const V t37 = c0 * x19i;
        const V x20r = io.re(20);
        const V t38 = c0 * x20r;
        const V x20i = io.im(20);
        const V t39 = c0 * x20i;
        const V x21r = io.re(21);
        const V t40 = c0 * x21r;
        const V x21i = io.im(21);
        const V t41 = c0 * x21i;
        const V x22r = io.re(22);
        const V t42 = c0 * x22r;
        const V x22i = io.im(22);
        const V t43 = c0 * x22i;
        const V x23r = io.re(23);
        const V t44 = c0 * x23r;
        const V x23i = io.im(23);
        const V t45 = c0 * x23i;
        const V x24r = io.re(24);
        const V t46 = c0 * x24r;
        const V x24i = io.im(24);
        const V t47 = c0 * x24i;
        const V x25r = io.re(25);
        const V t48 = c0 * x25r;
        const V x25i = io.im(25);
        const V t49 = c0 * x25i;
        // real block of 3, multiplier 2
        const V t50 = t30 + t22;
        const V t51 = t30 - t22;
        const V t52 = t50 + t6;
        const V t53 = c1 * t50;
        const V t54 = t6 - t53;
        const V t55 = c2 * t51;
        // real block of 3, multiplier 2
        const V t56 = t46 + t14;
        const V t57 = t46 - t14;
        const V t58 = t56 + t38;
        const V t59 = c1 * t56;
        const V t60 = t38 - t59;
        const V t61 = c2 * t57;
        // real block of 2
        const V t62 = t52 + t58;
        const V t63 = t52 - t58;
        // complex block of 2
        const V t64 = t54 + t60;
        const V t65 = t55 + t61;
        const V t66 = t54 - t60;
        const V t67 = t55 - t61;
        // skew block of 6
        const V t68 = c1 * t23;
        const V t69 = c2 * t15;
        const V t70 = t69 - t68;
        const V t71 = c1 * t15;
        const V t72 = c2 * t23;
        const V t73 = t72 + t71;
        const V t74 = c2 * t47;
        const V t75 = c1 * t31;
        const V t76 = t75 - t74;
        const V t77 = c2 * t31;
        const V t78 = c1 * t47;
        const V t79 = t78 + t77;
        // complex block of 3
        const V t80 = t70 + t76;
        const V t81 = t73 + t79;
        const V t82 = t70 - t76;
        const V t83 = t79 - t73;
        const V t84 = t80 + t7;
        const V t85 = t39 - t81;
        const V t86 = c1 * t80;
        const V t87 = t7 - t86;
        const V t88 = c1 * t81;
        const V t89 = t88 + t39;
        const V t90 = c2 * t82;
        const V t91 = c2 * t83;
        const V t92 = t87 + t91;
        const V t93 = t89 - t90;
        const V t94 = t87 - t91;
        const V t95 = t89 + t90;
        // spectrum block of 13, multiplier 4
        const V t96 = c3 * t62;
        const V x0r = io.re(0);
        const V t97 = x0r - t96;
        const V t98 = c4 * t85;
        const V t99 = c5 * t84;
        const V t100 = t99 + t98;
        const V t101 = c4 * t84;
        const V t102 = c5 * t85;
        const V t103 = t101 - t102;
        const V t104 = c6 * t67;
        const V t105 = c7 * t66;
        const V t106 = t105 - t104;
        const V t107 = c8 * t95;
        const V t108 = c9 * t94;
        const V t109 = t108 + t107;
        const V t110 = c8 * t94;
        const V t111 = c9 * t95;
        const V t112 = t110 - t111;
        const V t113 = c10 * t65;
        const V t114 = c11 * t64;
        const V t115 = t113 - t114;
        const V t116 = c12 * t93;
        const V t117 = c13 * t92;
        const V t118 = t117 + t116;
        const V t119 = c12 * t92;
        const V t120 = c13 * t93;
        const V t121 = t119 - t120;
        const V t122 = c14 * t63;
        // spectrum block of 3
        const V t123 = t115 + t97;
        const V t124 = c1 * t115;
        const V t125 = t97 - t124;
        const V t126 = c15 * t65;
        const V t127 = c16 * t64;
        const V t128 = t126 + t127;
        const V t129 = t125 + t128;
        const V t130 = t125 - t128;
        // complex block of 3
        const V t131 = t121 + t103;
        const V t132 = t118 + t100;
        const V t133 = t103 - t121;
        const V t134 = t100 - t118;
        const V t135 = t112 - t131;
        const V t136 = t109 - t132;
        const V t137 = c1 * t131;
        const V t138 = t137 + t112;
        const V t139 = c1 * t132;
        const V t140 = t139 + t109;
        const V t141 = c2 * t133;
        const V t142 = c2 * t134;
        const V t143 = t138 + t142;
        const V t144 = t140 - t141;
        const V t145 = t138 - t142;
        const V t146 = t140 + t141;
        // spectrum block of 3
        const V t147 = t106 + t122;
        const V t148 = c1 * t106;
        const V t149 = t122 - t148;
        const V t150 = c17 * t67;
        const V t151 = c18 * t66;
        const V t152 = t150 + t151;
        const V t153 = t149 - t152;
        const V t154 = t149 + t152;
        // spectrum block of 2
        const V t155 = t123 + t147;
        const V t156 = t123 - t147;
        // spectrum block of 2
        const V t157 = t155 + t136;
        const V t158 = t155 - t136;
        // spectrum block of 2
        const V t159 = t156 + t135;
        const V t160 = t156 - t135;
        // spectrum block of 2
        const V t161 = t129 + t153;
        const V t162 = t129 - t153;
        // spectrum block of 2
        const V t163 = t161 + t144;
        const V t164 = t161 - t144;
        // spectrum block of 2
        const V t165 = t162 + t143;
        const V t166 = t162 - t143;
        // spectrum block of 2
        const V t167 = t130 + t154;
        const V t168 = t130 - t154;
        // spectrum block of 2
        const V t169 = t167 + t146;
        const V t170 = t167 - t146;
        // spectrum block of 2
        const V t171 = t168 + t145;
        const V t172 = t168 - t145;
        // spectrum block of 13, multiplier 4
        const V t173 = x0r + t62;
        // real block of 2
        const V t174 = t33 + t17;
        const V t175 = t33 - t17;
        // real block of 2
        const V t176 = t13 + t37;
        const V t177 = t37 - t13;
        // real block of 2
        const V t178 = t174 - t176;
        const V t179 = t174 + t176;
        // real block of 2
        const V t180 = t49 + t1;
        const V t181 = t49 - t1;
        // real block of 2
        const V t182 = t9 + t41;
        const V t183 = t9 - t41;
        // real block of 2
        const V t184 = t180 + t182;
        const V t185 = t180 - t182;
        // real block of 2
        const V t186 = t5 + t45;
        const V t187 = t45 - t5;
        // real block of 2
        const V t188 = t21 + t29;
        const V t189 = t29 - t21;
        // real block of 2
        const V t190 = t186 + t188;
        const V t191 = t188 - t186;
        // real block of 3
        const V t192 = t184 - t190;
        const V t193 = t184 + t190;
        const V t194 = t192 + t178;
        const V t195 = c1 * t192;
        const V t196 = t178 - t195;
        const V t197 = c2 * t193;
        // complex block of 3
        const V t198 = t181 + t187;
        const V t199 = t183 + t189;
        const V t200 = t181 - t187;
        const V t201 = t183 - t189;
        const V t202 = t198 + t175;
        const V t203 = t199 + t177;
        const V t204 = c1 * t198;
        const V t205 = t175 - t204;
        const V t206 = c1 * t199;
        const V t207 = t177 - t206;
        const V t208 = c2 * t200;
        const V t209 = c2 * t201;
        const V t210 = t205 + t209;
        const V t211 = t207 - t208;
        const V t212 = t205 - t209;
        const V t213 = t207 + t208;
        // real block of 3
        const V t214 = t185 + t191;
        const V t215 = t185 - t191;
        const V t216 = t214 + t179;
        const V t217 = c1 * t214;
        const V t218 = t179 - t217;
        const V t219 = c2 * t215;
        // real block of 2
        const V t220 = t32 + t16;
        const V t221 = t32 - t16;
        // real block of 2
        const V t222 = t12 + t36;
        const V t223 = t12 - t36;
        // real block of 2
        const V t224 = t220 + t222;
        const V t225 = t220 - t222;
        // real block of 2
        const V t226 = t48 + t0;
        const V t227 = t48 - t0;
        // real block of 2
        const V t228 = t8 + t40;
        const V t229 = t8 - t40;
        // real block of 2
        const V t230 = t226 + t228;
        const V t231 = t226 - t228;
        // real block of 2
        const V t232 = t4 + t44;
        const V t233 = t4 - t44;
        // real block of 2
        const V t234 = t20 + t28;
        const V t235 = t20 - t28;
        // real block of 2
        const V t236 = t232 + t234;
        const V t237 = t232 - t234;
        // real block of 3
        const V t238 = t230 + t236;
        const V t239 = t230 - t236;
        const V t240 = t238 + t224;
        const V t241 = c1 * t238;
        const V t242 = t224 - t241;
        const V t243 = c2 * t239;
        // complex block of 3
        const V t244 = t227 + t233;
        const V t245 = t229 + t235;
        const V t246 = t227 - t233;
        const V t247 = t229 - t235;
        const V t248 = t244 + t221;
        const V t249 = t245 + t223;
        const V t250 = c1 * t244;
        const V t251 = t221 - t250;
        const V t252 = c1 * t245;
        const V t253 = t223 - t252;
        const V t254 = c2 * t246;
        const V t255 = c2 * t247;
        const V t256 = t251 + t255;
        const V t257 = t253 - t254;
        const V t258 = t251 - t255;
        const V t259 = t253 + t254;
        // real block of 3
        const V t260 = t231 + t237;
        const V t261 = t231 - t237;
        const V t262 = t260 + t225;
        const V t263 = c1 * t260;
        const V t264 = t225 - t263;
        const V t265 = c2 * t261;
        // complex block of 13, multiplier 4
        const V t266 = t25 + t194;
        const V t267 = t24 + t240;
        const V t268 = c3 * t194;
        const V t269 = t25 - t268;
        const V t270 = c3 * t240;
        const V t271 = t24 - t270;
        const V t272 = c4 * t259;
        const V t273 = c5 * t258;
        const V t274 = t273 - t272;
        const V t275 = c4 * t258;
        const V t276 = c5 * t259;
        const V t277 = t276 + t275;
        const V t278 = c4 * t213;
        const V t279 = c5 * t212;
        const V t280 = t278 - t279;
        const V t281 = c4 * t212;
        const V t282 = c5 * t213;
        const V t283 = t282 + t281;
        const V t284 = c6 * t219;
        const V t285 = c7 * t218;
        const V t286 = t285 + t284;
        const V t287 = c6 * t265;
        const V t288 = c7 * t264;
        const V t289 = t288 + t287;
        const V t290 = c8 * t249;
        const V t291 = c9 * t248;
        const V t292 = t290 - t291;
        const V t293 = c8 * t248;
        const V t294 = c9 * t249;
        const V t295 = t294 + t293;
        const V t296 = c8 * t203;
        const V t297 = c9 * t202;
        const V t298 = t297 - t296;
        const V t299 = c8 * t202;
        const V t300 = c9 * t203;
        const V t301 = t300 + t299;
        const V t302 = c10 * t197;
        const V t303 = c11 * t196;
        const V t304 = t303 + t302;
        const V t305 = c10 * t243;
        const V t306 = c11 * t242;
        const V t307 = t306 + t305;
        const V t308 = c12 * t257;
        const V t309 = c13 * t256;
        const V t310 = t309 - t308;
        const V t311 = c12 * t256;
        const V t312 = c13 * t257;
        const V t313 = t312 + t311;
        const V t314 = c12 * t211;
        const V t315 = c13 * t210;
        const V t316 = t314 - t315;
        const V t317 = c12 * t210;
        const V t318 = c13 * t211;
        const V t319 = t318 + t317;
        const V t320 = c14 * t216;
        const V t321 = c14 * t262;
        // spectrum block of 3
        const V t322 = t269 - t304;
        const V t323 = c1 * t304;
        const V t324 = t323 + t269;
        const V t325 = c15 * t197;
        const V t326 = c16 * t196;
        const V t327 = t325 - t326;
        const V t328 = t324 - t327;
        const V t329 = t324 + t327;
        // complex block of 3
        const V t330 = t313 + t277;
        const V t331 = t310 + t274;
        const V t332 = t313 - t277;
        const V t333 = t310 - t274;
        const V t334 = t330 - t295;
        const V t335 = t331 + t292;
        const V t336 = c1 * t330;
        const V t337 = t295 + t336;
        const V t338 = c1 * t331;
        const V t339 = t292 - t338;
        const V t340 = c2 * t332;
        const V t341 = c2 * t333;
        const V t342 = t341 - t337;
        const V t343 = t339 - t340;
        const V t344 = t337 + t341;
        const V t345 = t339 + t340;
        // spectrum block of 3
        const V t346 = t286 + t320;
        const V t347 = c1 * t286;
        const V t348 = t320 - t347;
        const V t349 = c17 * t219;
        const V t350 = c18 * t218;
        const V t351 = t349 - t350;
        const V t352 = t348 + t351;
        const V t353 = t348 - t351;
        // spectrum block of 2
        const V t354 = t322 + t346;
        const V t355 = t322 - t346;
        // spectrum block of 2
        const V t356 = t354 + t335;
        const V t357 = t354 - t335;
        // spectrum block of 2
        const V t358 = t355 + t334;
        const V t359 = t355 - t334;
        // spectrum block of 2
        const V t360 = t328 + t352;
        const V t361 = t328 - t352;
        // spectrum block of 2
        const V t362 = t360 + t343;
        const V t363 = t360 - t343;
        // spectrum block of 2
        const V t364 = t361 + t342;
        const V t365 = t361 - t342;
        // spectrum block of 2
        const V t366 = t329 + t353;
        const V t367 = t329 - t353;
        // spectrum block of 2
        const V t368 = t366 + t345;
        const V t369 = t366 - t345;
        // spectrum block of 2
        const V t370 = t367 - t344;
        const V t371 = t367 + t344;
        // spectrum block of 3
        const V t372 = t271 - t307;
        const V t373 = c1 * t307;
        const V t374 = t373 + t271;
        const V t375 = c15 * t243;
        const V t376 = c16 * t242;
        const V t377 = t375 - t376;
        const V t378 = t374 - t377;
        const V t379 = t374 + t377;
        // complex block of 3
        const V t380 = t319 + t283;
        const V t381 = t316 + t280;
        const V t382 = t283 - t319;
        const V t383 = t316 - t280;
        const V t384 = t301 - t380;
        const V t385 = t381 + t298;
        const V t386 = c1 * t380;
        const V t387 = t386 + t301;
        const V t388 = c1 * t381;
        const V t389 = t298 - t388;
        const V t390 = c2 * t382;
        const V t391 = c2 * t383;
        const V t392 = t387 + t391;
        const V t393 = t389 - t390;
        const V t394 = t387 - t391;
        const V t395 = t389 + t390;
        // spectrum block of 3
        const V t396 = t289 + t321;
        const V t397 = c1 * t289;
        const V t398 = t321 - t397;
        const V t399 = c17 * t265;
        const V t400 = c18 * t264;
        const V t401 = t399 - t400;
        const V t402 = t398 + t401;
        const V t403 = t398 - t401;
        // spectrum block of 2
        const V t404 = t372 + t396;
        const V t405 = t372 - t396;
        // spectrum block of 2
        const V t406 = t404 + t385;
        const V t407 = t404 - t385;
        // spectrum block of 2
        const V t408 = t405 + t384;
        const V t409 = t405 - t384;
        // spectrum block of 2
        const V t410 = t378 + t402;
        const V t411 = t378 - t402;
        // spectrum block of 2
        const V t412 = t410 + t393;
        const V t413 = t410 - t393;
        // spectrum block of 2
        const V t414 = t411 + t392;
        const V t415 = t411 - t392;
        // spectrum block of 2
        const V t416 = t379 + t403;
        const V t417 = t379 - t403;
        // spectrum block of 2
        const V t418 = t416 + t395;
        const V t419 = t416 - t395;
        // spectrum block of 2
        const V t420 = t417 + t394;
        const V t421 = t417 - t394;
        // real block of 3, multiplier 2
        const V t422 = t18 + t26;
        const V t423 = t18 - t26;
        const V t424 = t422 + t42;
        const V t425 = c1 * t422;
        const V t426 = t42 - t425;
        const V t427 = c2 * t423;
        // real block of 3, multiplier 2
        const V t428 = t2 + t34;
        const V t429 = t2 - t34;
        const V t430 = t428 + t10;
        const V t431 = c1 * t428;
        const V t432 = t10 - t431;
        const V t433 = c2 * t429;
        // real block of 2
        const V t434 = t424 + t430;
        const V t435 = t424 - t430;
        // complex block of 2
        const V t436 = t426 + t432;
        const V t437 = t427 + t433;
        const V t438 = t426 - t432;
        const V t439 = t427 - t433;
        // skew block of 6
        const V t440 = c1 * t27;
        const V t441 = c2 * t35;
        const V t442 = t440 - t441;
        const V t443 = c1 * t35;
        const V t444 = c2 * t27;
        const V t445 = t444 + t443;
        const V t446 = c2 * t3;
        const V t447 = c1 * t19;
        const V t448 = t446 - t447;
        const V t449 = c2 * t19;
        const V t450 = c1 * t3;
        const V t451 = t450 + t449;
        // complex block of 3
        const V t452 = t442 + t448;
        const V t453 = t445 + t451;
        const V t454 = t442 - t448;
        const V t455 = t445 - t451;
        const V t456 = t452 - t43;
        const V t457 = t453 - t11;
        const V t458 = c1 * t452;
        const V t459 = t43 + t458;
        const V t460 = c1 * t453;
        const V t461 = t11 + t460;
        const V t462 = c2 * t454;
        const V t463 = c2 * t455;
        const V t464 = t463 - t459;
        const V t465 = t461 + t462;
        const V t466 = t459 + t463;
        const V t467 = t462 - t461;
        // spectrum block of 13, multiplier 4
        const V t468 = c3 * t434;
        const V x26r = io.re(26);
        const V t469 = x26r - t468;
        const V t470 = c4 * t457;
        const V t471 = c5 * t456;
        const V t472 = t471 + t470;
        const V t473 = c4 * t456;
        const V t474 = c5 * t457;
        const V t475 = t473 - t474;
        const V t476 = c6 * t439;
        const V t477 = c7 * t438;
        const V t478 = t477 - t476;
        const V t479 = c8 * t467;
        const V t480 = c9 * t466;
        const V t481 = t479 - t480;
        const V t482 = c8 * t466;
        const V t483 = c9 * t467;
        const V t484 = t483 + t482;
        const V t485 = c10 * t437;
        const V t486 = c11 * t436;
        const V t487 = t485 - t486;
        const V t488 = c12 * t465;
        const V t489 = c13 * t464;
        const V t490 = t488 - t489;
        const V t491 = c12 * t464;
        const V t492 = c13 * t465;
        const V t493 = t492 + t491;
        const V t494 = c14 * t435;
        // spectrum block of 3
        const V t495 = t487 + t469;
        const V t496 = c1 * t487;
        const V t497 = t469 - t496;
        const V t498 = c15 * t437;
        const V t499 = c16 * t436;
        const V t500 = t498 + t499;
        const V t501 = t497 + t500;
        const V t502 = t497 - t500;
        // complex block of 3
        const V t503 = t493 + t475;
        const V t504 = t490 - t472;
        const V t505 = t475 - t493;
        const V t506 = t490 + t472;
        const V t507 = t503 + t484;
        const V t508 = t504 + t481;
        const V t509 = c1 * t503;
        const V t510 = t509 - t484;
        const V t511 = c1 * t504;
        const V t512 = t481 - t511;
        const V t513 = c2 * t505;
        const V t514 = c2 * t506;
        const V t515 = t510 + t514;
        const V t516 = t512 - t513;
        const V t517 = t510 - t514;
        const V t518 = t512 + t513;
        // spectrum block of 3
        const V t519 = t478 + t494;
        const V t520 = c1 * t478;
        const V t521 = t494 - t520;
        const V t522 = c17 * t439;
        const V t523 = c18 * t438;
        const V t524 = t522 + t523;
        const V t525 = t521 - t524;
        const V t526 = t521 + t524;
        // spectrum block of 2
        const V t527 = t495 + t519;
        const V t528 = t495 - t519;
        // spectrum block of 2
        const V t529 = t527 + t508;
        const V t530 = t527 - t508;
        // spectrum block of 2
        const V t531 = t528 - t507;
        const V t532 = t528 + t507;
        // spectrum block of 2
        const V t533 = t501 + t525;
        const V t534 = t501 - t525;
        // spectrum block of 2
        const V t535 = t533 + t516;
        const V t536 = t533 - t516;
        // spectrum block of 2
        const V t537 = t534 + t515;
        const V t538 = t534 - t515;
        // spectrum block of 2
        const V t539 = t502 + t526;
        const V t540 = t502 - t526;
        // spectrum block of 2
        const V t541 = t539 + t518;
        const V t542 = t539 - t518;
        // spectrum block of 2
        const V t543 = t540 + t517;
        const V t544 = t540 - t517;
        // spectrum block of 13, multiplier 4
        const V t545 = x26r + t434;
        // spectrum block of 2
        const V t546 = t173 + t545;
        const V t547 = t173 - t545;
        // spectrum block of 2
        const V t548 = t546 + t267;
        io.out(0, t548);
        const V t549 = t546 - t267;
        io.out(26, t549);
        // spectrum block of 2
        const V t550 = t547 - t266;
        io.out(13, t550);
        const V t551 = t547 + t266;
        io.out(39, t551);
        // spectrum block of 2
        const V t552 = t157 + t529;
        const V t553 = t157 - t529;
        // spectrum block of 2
        const V t554 = t552 + t406;
        io.out(4, t554);
        const V t555 = t552 - t406;
        io.out(30, t555);
        // spectrum block of 2
        const V t556 = t553 - t356;
        io.out(17, t556);
        const V t557 = t553 + t356;
        io.out(43, t557);
        // spectrum block of 2
        const V t558 = t171 + t543;
        const V t559 = t171 - t543;
        // spectrum block of 2
        const V t560 = t558 + t420;
        io.out(8, t560);
        const V t561 = t558 - t420;
        io.out(34, t561);
        // spectrum block of 2
        const V t562 = t559 - t370;
        io.out(21, t562);
        const V t563 = t559 + t370;
        io.out(47, t563);
        // spectrum block of 2
        const V t564 = t169 + t541;
        const V t565 = t169 - t541;
        // spectrum block of 2
        const V t566 = t564 + t418;
        io.out(12, t566);
        const V t567 = t564 - t418;
        io.out(38, t567);
        // spectrum block of 2
        const V t568 = t565 - t368;
        io.out(25, t568);
        const V t569 = t565 + t368;
        io.out(51, t569);
        // spectrum block of 2
        const V t570 = t164 + t536;
        const V t571 = t164 - t536;
        // spectrum block of 2
        const V t572 = t570 + t413;
        io.out(16, t572);
        const V t573 = t570 - t413;
        io.out(42, t573);
        // spectrum block of 2
        const V t574 = t571 - t363;
        io.out(29, t574);
        const V t575 = t571 + t363;
        io.out(3, t575);
        // spectrum block of 2
        const V t576 = t159 + t531;
        const V t577 = t159 - t531;
        // spectrum block of 2
        const V t578 = t576 + t408;
        io.out(20, t578);
        const V t579 = t576 - t408;
        io.out(46, t579);
        // spectrum block of 2
        const V t580 = t577 - t358;
        io.out(33, t580);
        const V t581 = t577 + t358;
        io.out(7, t581);
        // spectrum block of 2
        const V t582 = t165 + t537;
        const V t583 = t165 - t537;
        // spectrum block of 2
        const V t584 = t582 + t414;
        io.out(24, t584);
        const V t585 = t582 - t414;
        io.out(50, t585);
        // spectrum block of 2
        const V t586 = t583 - t364;
        io.out(37, t586);
        const V t587 = t583 + t364;
        io.out(11, t587);
        // spectrum block of 2
        const V t588 = t166 + t538;
        const V t589 = t166 - t538;
        // spectrum block of 2
        const V t590 = t588 + t415;
        io.out(28, t590);
        const V t591 = t588 - t415;
        io.out(2, t591);
        // spectrum block of 2
        const V t592 = t589 - t365;
        io.out(41, t592);
        const V t593 = t589 + t365;
        io.out(15, t593);
        // spectrum block of 2
        const V t594 = t160 + t532;
        const V t595 = t160 - t532;
        // spectrum block of 2
        const V t596 = t594 + t409;
        io.out(32, t596);
        const V t597 = t594 - t409;
        io.out(6, t597);
        // spectrum block of 2
        const V t598 = t595 - t359;
        io.out(45, t598);
        const V t599 = t595 + t359;
        io.out(19, t599);
        // spectrum block of 2
        const V t600 = t163 + t535;
        const V t601 = t163 - t535;
        // spectrum block of 2
        const V t602 = t600 + t412;
        io.out(36, t602);
        const V t603 = t600 - t412;
        io.out(10, t603);
        // spectrum block of 2
        const V t604 = t601 - t362;
        io.out(49, t604);
        const V t605 = t601 + t362;
        io.out(23, t605);
        // spectrum block of 2
        const V t606 = t170 + t542;
        const V t607 = t170 - t542;
        // spectrum block of 2
        const V t608 = t606 + t419;
        io.out(40, t608);
        const V t609 = t606 - t419;
        io.out(14, t609);
        // spectrum block of 2
        const V t610 = t607 - t369;
        io.out(1, t610);
        const V t611 = t607 + t369;
        io.out(27, t611);
        // spectrum block of 2
        const V t612 = t172 + t544;
        const V t613 = t172 - t544;
        // spectrum block of 2
        const V t614 = t612 + t421;
        io.out(44, t614);
        const V t615 = t612 - t421;
        io.out(18, t615);
        // spectrum block of 2
        const V t616 = t613 - t371;
        io.out(5, t616);
        const V t617 = t613 + t371;
        io.out(31, t617);
        // spectrum block of 2
        const V t618 = t158 + t530;
        const V t619 = t158 - t530;
        // spectrum block of 2
        const V t620 = t618 + t407;
        io.out(48, t620);
        const V t621 = t618 - t407;
        io.out(22, t621);
        // spectrum block of 2
        const V t622 = t619 - t357;
        io.out(9, t622);
        const V t623 = t619 + t357;
        io.out(35, t623);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 52, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 52, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 52, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 52, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 52, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 52, double>(const double*, double*, std::int32_t);

}  // namespace zulg
