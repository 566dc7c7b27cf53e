// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 39.
// Inverse DFT to 39 real points, prime-factor 13, 3.
// 154 additions, 154 subtractions, 180 multiplications (219 with `scale`); 19 constants; 45 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<39> {
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.5;  // -cos 2 pi 2/3
    static constexpr double c2 = 0.8660254037844386;  // -sin 2 pi 2/3
    static constexpr double c3 = 0.08333333333333333;  // 1/12
    static constexpr double c4 = 0.5279915321544383;  // P[1] of 13
    static constexpr double c5 = 0.2869425954512852;  // -Q[1] of 13
    static constexpr double c6 = 0.29376443202296976;  // Q[2] of 13
    static constexpr double c7 = 0.5242266395265821;  // -P[2] of 13
    static constexpr double c8 = 0.5751407294740031;  // -P[3] of 13
    static constexpr double c9 = 0.1741386011521359;  // -Q[3] of 13
    static constexpr double c10 = 0.42218506973345193;  // -Q[4] of 13
    static constexpr double c11 = 0.42763404682657274;  // P[4] of 13
    static constexpr double c12 = 0.280148395734785;  // -P[5] of 13
    static constexpr double c13 = 0.5316276774946329;  // -Q[5] of 13
    static constexpr double c14 = 0.3004626062886658;  // beta of 13
    static constexpr double c15 = 0.37034194807495624;  // -sin 2 pi 2/3 times P[4] of 13
    static constexpr double c16 = 0.36562299548767413;  // -sin 2 pi 2/3 times -Q[4] of 13
    static constexpr double c17 = 0.45399358717056765;  // -sin 2 pi 2/3 times -P[2] of 13
    static constexpr double c18 = 0.25440746086019866;  // -sin 2 pi 2/3 times Q[2] of 13

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
        // real block of 3, multiplier 2
        const V t38 = t22 + t16;
        const V t39 = t22 - t16;
        const V t40 = t38 + t4;
        const V t41 = c1 * t38;
        const V t42 = t4 - t41;
        const V t43 = c2 * t39;
        // real block of 3, multiplier 2
        const V t44 = t34 + t10;
        const V t45 = t34 - t10;
        const V t46 = t44 + t28;
        const V t47 = c1 * t44;
        const V t48 = t28 - t47;
        const V t49 = c2 * t45;
        // real block of 2
        const V t50 = t40 + t46;
        const V t51 = t40 - t46;
        // complex block of 2
        const V t52 = t42 + t48;
        const V t53 = t43 + t49;
        const V t54 = t42 - t48;
        const V t55 = t43 - t49;
        // skew block of 6
        const V t56 = c1 * t17;
        const V t57 = c2 * t11;
        const V t58 = t57 - t56;
        const V t59 = c1 * t11;
        const V t60 = c2 * t17;
        const V t61 = t60 + t59;
        const V t62 = c2 * t35;
        const V t63 = c1 * t23;
        const V t64 = t63 - t62;
        const V t65 = c2 * t23;
        const V t66 = c1 * t35;
        const V t67 = t66 + t65;
        // complex block of 3
        const V t68 = t58 + t64;
        const V t69 = t61 + t67;
        const V t70 = t58 - t64;
        const V t71 = t67 - t61;
        const V t72 = t68 + t5;
        const V t73 = t29 - t69;
        const V t74 = c1 * t68;
        const V t75 = t5 - t74;
        const V t76 = c1 * t69;
        const V t77 = t76 + t29;
        const V t78 = c2 * t70;
        const V t79 = c2 * t71;
        const V t80 = t75 + t79;
        const V t81 = t77 - t78;
        const V t82 = t75 - t79;
        const V t83 = t77 + t78;
        // spectrum block of 13, multiplier 3
        const V t84 = c3 * t50;
        const V x0r = io.re(0);
        const V t85 = x0r - t84;
        const V t86 = c4 * t73;
        const V t87 = c5 * t72;
        const V t88 = t87 + t86;
        const V t89 = c4 * t72;
        const V t90 = c5 * t73;
        const V t91 = t89 - t90;
        const V t92 = c6 * t55;
        const V t93 = c7 * t54;
        const V t94 = t92 - t93;
        const V t95 = c8 * t83;
        const V t96 = c9 * t82;
        const V t97 = t96 + t95;
        const V t98 = c8 * t82;
        const V t99 = c9 * t83;
        const V t100 = t99 - t98;
        const V t101 = c10 * t53;
        const V t102 = c11 * t52;
        const V t103 = t102 + t101;
        const V t104 = c12 * t81;
        const V t105 = c13 * t80;
        const V t106 = t104 - t105;
        const V t107 = c12 * t80;
        const V t108 = c13 * t81;
        const V t109 = t108 + t107;
        const V t110 = c14 * t51;
        // spectrum block of 3
        const V t111 = t103 + t85;
        const V t112 = c1 * t103;
        const V t113 = t85 - t112;
        const V t114 = c15 * t53;
        const V t115 = c16 * t52;
        const V t116 = t114 - t115;
        const V t117 = t113 - t116;
        const V t118 = t113 + t116;
        // complex block of 3
        const V t119 = t109 - t91;
        const V t120 = t106 - t88;
        const V t121 = t109 + t91;
        const V t122 = t106 + t88;
        const V t123 = t119 + t100;
        const V t124 = t120 - t97;
        const V t125 = c1 * t119;
        const V t126 = t100 - t125;
        const V t127 = c1 * t120;
        const V t128 = t97 + t127;
        const V t129 = c2 * t121;
        const V t130 = c2 * t122;
        const V t131 = t126 + t130;
        const V t132 = t128 + t129;
        const V t133 = t126 - t130;
        const V t134 = t129 - t128;
        // spectrum block of 3
        const V t135 = t94 + t110;
        const V t136 = c1 * t94;
        const V t137 = t110 - t136;
        const V t138 = c17 * t55;
        const V t139 = c18 * t54;
        const V t140 = t138 + t139;
        const V t141 = t137 + t140;
        const V t142 = t137 - t140;
        // spectrum block of 2
        const V t143 = t111 + t135;
        const V t144 = t111 - t135;
        // spectrum block of 2
        const V t145 = t143 + t124;
        const V t146 = t143 - t124;
        // spectrum block of 2
        const V t147 = t144 + t123;
        const V t148 = t144 - t123;
        // spectrum block of 2
        const V t149 = t117 + t141;
        const V t150 = t117 - t141;
        // spectrum block of 2
        const V t151 = t149 - t132;
        const V t152 = t149 + t132;
        // spectrum block of 2
        const V t153 = t150 + t131;
        const V t154 = t150 - t131;
        // spectrum block of 2
        const V t155 = t118 + t142;
        const V t156 = t118 - t142;
        // spectrum block of 2
        const V t157 = t155 + t134;
        const V t158 = t155 - t134;
        // spectrum block of 2
        const V t159 = t156 + t133;
        const V t160 = t156 - t133;
        // spectrum block of 13, multiplier 3
        const V t161 = x0r + t50;
        // real block of 2
        const V t162 = t31 + t19;
        const V t163 = t31 - t19;
        // real block of 2
        const V t164 = t3 + t21;
        const V t165 = t21 - t3;
        // real block of 2
        const V t166 = t162 - t164;
        const V t167 = t162 + t164;
        // real block of 2
        const V t168 = t7 - t33;
        const V t169 = t33 + t7;
        // real block of 2
        const V t170 = t13 + t37;
        const V t171 = t13 - t37;
        // real block of 2
        const V t172 = t168 + t170;
        const V t173 = t168 - t170;
        // real block of 2
        const V t174 = t1 - t27;
        const V t175 = t1 + t27;
        // real block of 2
        const V t176 = t9 + t15;
        const V t177 = t15 - t9;
        // real block of 2
        const V t178 = t174 - t176;
        const V t179 = t174 + t176;
        // real block of 3
        const V t180 = t172 + t178;
        const V t181 = t172 - t178;
        const V t182 = t180 + t166;
        const V t183 = c1 * t180;
        const V t184 = t166 - t183;
        const V t185 = c2 * t181;
        // complex block of 3
        const V t186 = t175 - t169;
        const V t187 = t171 + t177;
        const V t188 = t169 + t175;
        const V t189 = t171 - t177;
        const V t190 = t186 + t163;
        const V t191 = t187 + t165;
        const V t192 = c1 * t186;
        const V t193 = t163 - t192;
        const V t194 = c1 * t187;
        const V t195 = t165 - t194;
        const V t196 = c2 * t188;
        const V t197 = c2 * t189;
        const V t198 = t193 + t197;
        const V t199 = t195 + t196;
        const V t200 = t193 - t197;
        const V t201 = t195 - t196;
        // real block of 3
        const V t202 = t173 + t179;
        const V t203 = t173 - t179;
        const V t204 = t202 + t167;
        const V t205 = c1 * t202;
        const V t206 = t167 - t205;
        const V t207 = c2 * t203;
        // real block of 2
        const V t208 = t30 + t18;
        const V t209 = t30 - t18;
        // real block of 2
        const V t210 = t2 + t20;
        const V t211 = t2 - t20;
        // real block of 2
        const V t212 = t208 + t210;
        const V t213 = t208 - t210;
        // real block of 2
        const V t214 = t32 + t6;
        const V t215 = t32 - t6;
        // real block of 2
        const V t216 = t12 + t36;
        const V t217 = t12 - t36;
        // real block of 2
        const V t218 = t214 + t216;
        const V t219 = t214 - t216;
        // real block of 2
        const V t220 = t0 + t26;
        const V t221 = t0 - t26;
        // real block of 2
        const V t222 = t8 + t14;
        const V t223 = t8 - t14;
        // real block of 2
        const V t224 = t220 + t222;
        const V t225 = t220 - t222;
        // real block of 3
        const V t226 = t218 + t224;
        const V t227 = t218 - t224;
        const V t228 = t226 + t212;
        const V t229 = c1 * t226;
        const V t230 = t212 - t229;
        const V t231 = c2 * t227;
        // complex block of 3
        const V t232 = t215 + t221;
        const V t233 = t217 + t223;
        const V t234 = t215 - t221;
        const V t235 = t217 - t223;
        const V t236 = t232 + t209;
        const V t237 = t233 + t211;
        const V t238 = c1 * t232;
        const V t239 = t209 - t238;
        const V t240 = c1 * t233;
        const V t241 = t211 - t240;
        const V t242 = c2 * t234;
        const V t243 = c2 * t235;
        const V t244 = t239 + t243;
        const V t245 = t241 - t242;
        const V t246 = t239 - t243;
        const V t247 = t241 + t242;
        // real block of 3
        const V t248 = t219 + t225;
        const V t249 = t219 - t225;
        const V t250 = t248 + t213;
        const V t251 = c1 * t248;
        const V t252 = t213 - t251;
        const V t253 = c2 * t249;
        // complex block of 13, multiplier 3
        const V t254 = t25 + t182;
        const V t255 = t24 + t228;
        const V t256 = c3 * t182;
        const V t257 = t25 - t256;
        const V t258 = c3 * t228;
        const V t259 = t24 - t258;
        const V t260 = c4 * t247;
        const V t261 = c5 * t246;
        const V t262 = t261 - t260;
        const V t263 = c4 * t246;
        const V t264 = c5 * t247;
        const V t265 = t264 + t263;
        const V t266 = c4 * t201;
        const V t267 = c5 * t200;
        const V t268 = t266 - t267;
        const V t269 = c4 * t200;
        const V t270 = c5 * t201;
        const V t271 = t270 + t269;
        const V t272 = c6 * t207;
        const V t273 = c7 * t206;
        const V t274 = t273 + t272;
        const V t275 = c6 * t253;
        const V t276 = c7 * t252;
        const V t277 = t276 + t275;
        const V t278 = c8 * t237;
        const V t279 = c9 * t236;
        const V t280 = t279 - t278;
        const V t281 = c8 * t236;
        const V t282 = c9 * t237;
        const V t283 = t282 + t281;
        const V t284 = c8 * t191;
        const V t285 = c9 * t190;
        const V t286 = t284 - t285;
        const V t287 = c8 * t190;
        const V t288 = c9 * t191;
        const V t289 = t288 + t287;
        const V t290 = c10 * t185;
        const V t291 = c11 * t184;
        const V t292 = t291 - t290;
        const V t293 = c10 * t231;
        const V t294 = c11 * t230;
        const V t295 = t294 - t293;
        const V t296 = c12 * t245;
        const V t297 = c13 * t244;
        const V t298 = t297 + t296;
        const V t299 = c12 * t244;
        const V t300 = c13 * t245;
        const V t301 = t299 - t300;
        const V t302 = c12 * t199;
        const V t303 = c13 * t198;
        const V t304 = t303 + t302;
        const V t305 = c12 * t198;
        const V t306 = c13 * t199;
        const V t307 = t306 - t305;
        const V t308 = c14 * t204;
        const V t309 = c14 * t250;
        // spectrum block of 3
        const V t310 = t292 + t257;
        const V t311 = c1 * t292;
        const V t312 = t257 - t311;
        const V t313 = c15 * t185;
        const V t314 = c16 * t184;
        const V t315 = t313 + t314;
        const V t316 = t312 + t315;
        const V t317 = t312 - t315;
        // complex block of 3
        const V t318 = t265 - t301;
        const V t319 = t298 + t262;
        const V t320 = t301 + t265;
        const V t321 = t298 - t262;
        const V t322 = t318 + t283;
        const V t323 = t319 + t280;
        const V t324 = c1 * t318;
        const V t325 = t283 - t324;
        const V t326 = c1 * t319;
        const V t327 = t280 - t326;
        const V t328 = c2 * t320;
        const V t329 = c2 * t321;
        const V t330 = t325 + t329;
        const V t331 = t327 + t328;
        const V t332 = t325 - t329;
        const V t333 = t327 - t328;
        // spectrum block of 3
        const V t334 = t308 - t274;
        const V t335 = c1 * t274;
        const V t336 = t335 + t308;
        const V t337 = c18 * t206;
        const V t338 = c17 * t207;
        const V t339 = t337 - t338;
        const V t340 = t336 + t339;
        const V t341 = t336 - t339;
        // spectrum block of 2
        const V t342 = t310 + t334;
        const V t343 = t310 - t334;
        // spectrum block of 2
        const V t344 = t342 + t323;
        const V t345 = t342 - t323;
        // spectrum block of 2
        const V t346 = t343 + t322;
        const V t347 = t343 - t322;
        // spectrum block of 2
        const V t348 = t316 + t340;
        const V t349 = t316 - t340;
        // spectrum block of 2
        const V t350 = t348 + t331;
        const V t351 = t348 - t331;
        // spectrum block of 2
        const V t352 = t349 + t330;
        const V t353 = t349 - t330;
        // spectrum block of 2
        const V t354 = t317 + t341;
        const V t355 = t317 - t341;
        // spectrum block of 2
        const V t356 = t354 + t333;
        const V t357 = t354 - t333;
        // spectrum block of 2
        const V t358 = t355 + t332;
        const V t359 = t355 - t332;
        // spectrum block of 3
        const V t360 = t295 + t259;
        const V t361 = c1 * t295;
        const V t362 = t259 - t361;
        const V t363 = c15 * t231;
        const V t364 = c16 * t230;
        const V t365 = t363 + t364;
        const V t366 = t362 + t365;
        const V t367 = t362 - t365;
        // complex block of 3
        const V t368 = t307 + t271;
        const V t369 = t268 - t304;
        const V t370 = t271 - t307;
        const V t371 = t304 + t268;
        const V t372 = t368 + t289;
        const V t373 = t369 + t286;
        const V t374 = c1 * t368;
        const V t375 = t374 - t289;
        const V t376 = c1 * t369;
        const V t377 = t286 - t376;
        const V t378 = c2 * t370;
        const V t379 = c2 * t371;
        const V t380 = t375 - t379;
        const V t381 = t377 - t378;
        const V t382 = t375 + t379;
        const V t383 = t377 + t378;
        // spectrum block of 3
        const V t384 = t309 - t277;
        const V t385 = c1 * t277;
        const V t386 = t385 + t309;
        const V t387 = c18 * t252;
        const V t388 = c17 * t253;
        const V t389 = t387 - t388;
        const V t390 = t386 + t389;
        const V t391 = t386 - t389;
        // spectrum block of 2
        const V t392 = t360 + t384;
        const V t393 = t360 - t384;
        // spectrum block of 2
        const V t394 = t392 + t373;
        const V t395 = t392 - t373;
        // spectrum block of 2
        const V t396 = t393 - t372;
        const V t397 = t393 + t372;
        // spectrum block of 2
        const V t398 = t366 + t390;
        const V t399 = t366 - t390;
        // spectrum block of 2
        const V t400 = t398 + t381;
        const V t401 = t398 - t381;
        // spectrum block of 2
        const V t402 = t399 + t380;
        const V t403 = t399 - t380;
        // spectrum block of 2
        const V t404 = t367 + t391;
        const V t405 = t367 - t391;
        // spectrum block of 2
        const V t406 = t404 + t383;
        const V t407 = t404 - t383;
        // spectrum block of 2
        const V t408 = t405 + t382;
        const V t409 = t405 - t382;
        // spectrum block of 3
        const V t410 = t255 + t161;
        io.out(0, t410);
        const V t411 = c1 * t255;
        const V t412 = t161 - t411;
        const V t413 = c2 * t254;
        const V t414 = t412 - t413;
        io.out(13, t414);
        const V t415 = t412 + t413;
        io.out(26, t415);
        // spectrum block of 3
        const V t416 = t394 + t145;
        io.out(3, t416);
        const V t417 = c1 * t394;
        const V t418 = t145 - t417;
        const V t419 = c2 * t344;
        const V t420 = t418 - t419;
        io.out(16, t420);
        const V t421 = t418 + t419;
        io.out(29, t421);
        // spectrum block of 3
        const V t422 = t408 + t159;
        io.out(6, t422);
        const V t423 = c1 * t408;
        const V t424 = t159 - t423;
        const V t425 = c2 * t358;
        const V t426 = t424 - t425;
        io.out(19, t426);
        const V t427 = t424 + t425;
        io.out(32, t427);
        // spectrum block of 3
        const V t428 = t406 + t157;
        io.out(9, t428);
        const V t429 = c1 * t406;
        const V t430 = t157 - t429;
        const V t431 = c2 * t356;
        const V t432 = t430 - t431;
        io.out(22, t432);
        const V t433 = t430 + t431;
        io.out(35, t433);
        // spectrum block of 3
        const V t434 = t401 + t152;
        io.out(12, t434);
        const V t435 = c1 * t401;
        const V t436 = t152 - t435;
        const V t437 = c2 * t351;
        const V t438 = t436 - t437;
        io.out(25, t438);
        const V t439 = t436 + t437;
        io.out(38, t439);
        // spectrum block of 3
        const V t440 = t396 + t147;
        io.out(15, t440);
        const V t441 = c1 * t396;
        const V t442 = t147 - t441;
        const V t443 = c2 * t346;
        const V t444 = t442 - t443;
        io.out(28, t444);
        const V t445 = t442 + t443;
        io.out(2, t445);
        // spectrum block of 3
        const V t446 = t402 + t153;
        io.out(18, t446);
        const V t447 = c1 * t402;
        const V t448 = t153 - t447;
        const V t449 = c2 * t352;
        const V t450 = t448 - t449;
        io.out(31, t450);
        const V t451 = t448 + t449;
        io.out(5, t451);
        // spectrum block of 3
        const V t452 = t403 + t154;
        io.out(21, t452);
        const V t453 = c1 * t403;
        const V t454 = t154 - t453;
        const V t455 = c2 * t353;
        const V t456 = t454 - t455;
        io.out(34, t456);
        const V t457 = t454 + t455;
        io.out(8, t457);
        // spectrum block of 3
        const V t458 = t397 + t148;
        io.out(24, t458);
        const V t459 = c1 * t397;
        const V t460 = t148 - t459;
        const V t461 = c2 * t347;
        const V t462 = t460 - t461;
        io.out(37, t462);
        const V t463 = t460 + t461;
        io.out(11, t463);
        // spectrum block of 3
        const V t464 = t400 + t151;
        io.out(27, t464);
        const V t465 = c1 * t400;
        const V t466 = t151 - t465;
        const V t467 = c2 * t350;
        const V t468 = t466 - t467;
        io.out(1, t468);
        const V t469 = t466 + t467;
        io.out(14, t469);
        // spectrum block of 3
        const V t470 = t407 + t158;
        io.out(30, t470);
        const V t471 = c1 * t407;
        const V t472 = t158 - t471;
        const V t473 = c2 * t357;
        const V t474 = t472 - t473;
        io.out(4, t474);
        const V t475 = t472 + t473;
        io.out(17, t475);
        // spectrum block of 3
        const V t476 = t409 + t160;
        io.out(33, t476);
        const V t477 = c1 * t409;
        const V t478 = t160 - t477;
        const V t479 = c2 * t359;
        const V t480 = t478 - t479;
        io.out(7, t480);
        const V t481 = t478 + t479;
        io.out(20, t481);
        // spectrum block of 3
        const V t482 = t395 + t146;
        io.out(36, t482);
        const V t483 = c1 * t395;
        const V t484 = t146 - t483;
        const V t485 = c2 * t345;
        const V t486 = t484 - t485;
        io.out(10, t486);
        const V t487 = t484 + t485;
        io.out(23, t487);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 39, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 39, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 39, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 39, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 39, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 39, double>(const double*, double*, std::int32_t);

}  // namespace zulg
