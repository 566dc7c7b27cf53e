// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 60.
// Forward DFT of 60 real points, prime-factor 3, 5, 4.
// 199 additions, 175 subtractions, 136 multiplications (196 with `scale`); 18 outputs negated; 6 constants; 68 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<60> {
    static constexpr int steps = 570;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3, multiplier 2
        const V x20 = io.in(20);
        const V x40 = io.in(40);
        const V t0 = x20 + x40;
        const V t1 = x20 - x40;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        const V t3 = c[4] * t0;
        const V t4 = x0 - t3;
        const V t5 = c[5] * t1;
        // real block of 3, multiplier 2
        const V x32 = io.in(32);
        const V x52 = io.in(52);
        const V t6 = x32 + x52;
        const V t7 = x32 - x52;
        const V x12 = io.in(12);
        const V t8 = t6 + x12;
        const V t9 = c[4] * t6;
        const V t10 = x12 - t9;
        const V t11 = c[5] * t7;
        // real block of 3, multiplier 2
        const V x44 = io.in(44);
        const V x4 = io.in(4);
        const V t12 = x44 + x4;
        const V t13 = x44 - x4;
        const V x24 = io.in(24);
        const V t14 = t12 + x24;
        const V t15 = c[4] * t12;
        const V t16 = x24 - t15;
        const V t17 = c[5] * t13;
        // real block of 3, multiplier 2
        const V x56 = io.in(56);
        const V x16 = io.in(16);
        const V t18 = x56 + x16;
        const V t19 = x56 - x16;
        const V x36 = io.in(36);
        const V t20 = t18 + x36;
        const V t21 = c[4] * t18;
        const V t22 = x36 - t21;
        const V t23 = c[5] * t19;
        // real block of 3, multiplier 2
        const V x8 = io.in(8);
        const V x28 = io.in(28);
        const V t24 = x8 + x28;
        const V t25 = x8 - x28;
        const V x48 = io.in(48);
        const V t26 = t24 + x48;
        const V t27 = c[4] * t24;
        const V t28 = x48 - t27;
        const V t29 = c[5] * t25;
        // real block of 5, multiplier 2
        const V t30 = t8 + t26;
        const V t31 = t8 - t26;
        const V t32 = t20 + t14;
        const V t33 = t20 - t14;
        const V t34 = t30 + t32;
        const V t35 = t34 + t2;
        const V t36 = c[0] * t30;
        const V t37 = t2 - t36;
        const V t38 = c[1] * t32;
        const V t39 = t37 + t38;
        const V t40 = c[2] * t31;
        const V t41 = c[3] * t33;
        const V t42 = t40 + t41;
        const V t43 = c[1] * t30;
        const V t44 = c[0] * t32;
        const V t45 = t43 - t44;
        const V t46 = t45 + t2;
        const V t47 = c[3] * t31;
        const V t48 = c[2] * t33;
        const V t49 = t47 - t48;
        // complex block of 5, multiplier 2
        const V t50 = t10 + t28;
        const V t51 = t11 + t29;
        const V t52 = t10 - t28;
        const V t53 = t11 - t29;
        const V t54 = t22 + t16;
        const V t55 = t23 + t17;
        const V t56 = t22 - t16;
        const V t57 = t23 - t17;
        const V t58 = t50 + t54;
        const V t59 = t51 + t55;
        const V t60 = t58 + t4;
        const V t61 = t59 + t5;
        const V t62 = c[1] * t50;
        const V t63 = c[0] * t54;
        const V t64 = t62 - t63;
        const V t65 = t64 + t4;
        const V t66 = c[1] * t51;
        const V t67 = c[0] * t55;
        const V t68 = t66 - t67;
        const V t69 = t68 + t5;
        const V t70 = c[3] * t52;
        const V t71 = c[2] * t56;
        const V t72 = t70 - t71;
        const V t73 = c[3] * t53;
        const V t74 = c[2] * t57;
        const V t75 = t73 - t74;
        const V t76 = t65 + t75;
        const V t77 = t69 - t72;
        const V t78 = t65 - t75;
        const V t79 = t69 + t72;
        const V t80 = c[0] * t50;
        const V t81 = t4 - t80;
        const V t82 = c[1] * t54;
        const V t83 = t81 + t82;
        const V t84 = c[0] * t51;
        const V t85 = t5 - t84;
        const V t86 = c[1] * t55;
        const V t87 = t85 + t86;
        const V t88 = c[2] * t52;
        const V t89 = c[3] * t56;
        const V t90 = t88 + t89;
        const V t91 = c[2] * t53;
        const V t92 = c[3] * t57;
        const V t93 = t91 + t92;
        const V t94 = t83 + t93;
        const V t95 = t87 - t90;
        const V t96 = t83 - t93;
        const V t97 = t87 + t90;
        // real block of 3, multiplier 2
        const V x35 = io.in(35);
        const V x55 = io.in(55);
        const V t98 = x35 + x55;
        const V t99 = x35 - x55;
        const V x15 = io.in(15);
        const V t100 = t98 + x15;
        const V t101 = c[4] * t98;
        const V t102 = x15 - t101;
        const V t103 = c[5] * t99;
        // real block of 3, multiplier 2
        const V x47 = io.in(47);
        const V x7 = io.in(7);
        const V t104 = x47 + x7;
        const V t105 = x47 - x7;
        const V x27 = io.in(27);
        const V t106 = t104 + x27;
        const V t107 = c[4] * t104;
        const V t108 = x27 - t107;
        const V t109 = c[5] * t105;
        // real block of 3, multiplier 2
        const V x59 = io.in(59);
        const V x19 = io.in(19);
        const V t110 = x59 + x19;
        const V t111 = x59 - x19;
        const V x39 = io.in(39);
        const V t112 = t110 + x39;
        const V t113 = c[4] * t110;
        const V t114 = x39 - t113;
        const V t115 = c[5] * t111;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V x31 = io.in(31);
        const V t116 = x11 + x31;
        const V t117 = x11 - x31;
        const V x51 = io.in(51);
        const V t118 = t116 + x51;
        const V t119 = c[4] * t116;
        const V t120 = x51 - t119;
        const V t121 = c[5] * t117;
        // real block of 3, multiplier 2
        const V x23 = io.in(23);
        const V x43 = io.in(43);
        const V t122 = x23 + x43;
        const V t123 = x23 - x43;
        const V x3 = io.in(3);
        const V t124 = t122 + x3;
        const V t125 = c[4] * t122;
        const V t126 = x3 - t125;
        const V t127 = c[5] * t123;
        // real block of 5, multiplier 2
        const V t128 = t106 + t124;
        const V t129 = t106 - t124;
        const V t130 = t118 + t112;
        const V t131 = t118 - t112;
        const V t132 = t128 + t130;
        const V t133 = t132 + t100;
        const V t134 = c[0] * t128;
        const V t135 = t100 - t134;
        const V t136 = c[1] * t130;
        const V t137 = t135 + t136;
        const V t138 = c[2] * t129;
        const V t139 = c[3] * t131;
        const V t140 = t138 + t139;
        const V t141 = c[1] * t128;
        const V t142 = c[0] * t130;
        const V t143 = t141 - t142;
        const V t144 = t143 + t100;
        const V t145 = c[3] * t129;
        const V t146 = c[2] * t131;
        const V t147 = t145 - t146;
        // complex block of 5, multiplier 2
        const V t148 = t108 + t126;
        const V t149 = t109 + t127;
        const V t150 = t108 - t126;
        const V t151 = t109 - t127;
        const V t152 = t120 + t114;
        const V t153 = t121 + t115;
        const V t154 = t120 - t114;
        const V t155 = t121 - t115;
        const V t156 = t148 + t152;
        const V t157 = t149 + t153;
        const V t158 = t156 + t102;
        const V t159 = t157 + t103;
        const V t160 = c[1] * t148;
        const V t161 = c[0] * t152;
        const V t162 = t160 - t161;
        const V t163 = t162 + t102;
        const V t164 = c[1] * t149;
        const V t165 = c[0] * t153;
        const V t166 = t164 - t165;
        const V t167 = t166 + t103;
        const V t168 = c[3] * t150;
        const V t169 = c[2] * t154;
        const V t170 = t168 - t169;
        const V t171 = c[3] * t151;
        const V t172 = c[2] * t155;
        const V t173 = t171 - t172;
        const V t174 = t163 + t173;
        const V t175 = t167 - t170;
        const V t176 = t163 - t173;
        const V t177 = t167 + t170;
        const V t178 = c[0] * t148;
        const V t179 = t102 - t178;
        const V t180 = c[1] * t152;
        const V t181 = t179 + t180;
        const V t182 = c[0] * t149;
        const V t183 = t103 - t182;
        const V t184 = c[1] * t153;
        const V t185 = t183 + t184;
        const V t186 = c[2] * t150;
        const V t187 = c[3] * t154;
        const V t188 = t186 + t187;
        const V t189 = c[2] * t151;
        const V t190 = c[3] * t155;
        const V t191 = t189 + t190;
        const V t192 = t181 + t191;
        const V t193 = t185 - t188;
        const V t194 = t181 - t191;
        const V t195 = t185 + t188;
        // real block of 3, multiplier 2
        const V x50 = io.in(50);
        const V x10 = io.in(10);
        const V t196 = x50 + x10;
        const V t197 = x50 - x10;
        const V x30 = io.in(30);
        const V t198 = t196 + x30;
        const V t199 = c[4] * t196;
        const V t200 = x30 - t199;
        const V t201 = c[5] * t197;
        // real block of 3, multiplier 2
        const V x2 = io.in(2);
        const V x22 = io.in(22);
        const V t202 = x2 + x22;
        const V t203 = x2 - x22;
        const V x42 = io.in(42);
        const V t204 = t202 + x42;
        const V t205 = c[4] * t202;
        const V t206 = x42 - t205;
        const V t207 = c[5] * t203;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x34 = io.in(34);
        const V t208 = x14 + x34;
        const V t209 = x14 - x34;
        const V x54 = io.in(54);
        const V t210 = t208 + x54;
        const V t211 = c[4] * t208;
        const V t212 = x54 - t211;
        const V t213 = c[5] * t209;
        // real block of 3, multiplier 2
        const V x26 = io.in(26);
        const V x46 = io.in(46);
        const V t214 = x26 + x46;
        const V t215 = x26 - x46;
        const V x6 = io.in(6);
        const V t216 = t214 + x6;
        const V t217 = c[4] * t214;
        const V t218 = x6 - t217;
        const V t219 = c[5] * t215;
        // real block of 3, multiplier 2
        const V x38 = io.in(38);
        const V x58 = io.in(58);
        const V t220 = x38 + x58;
        const V t221 = x38 - x58;
        const V x18 = io.in(18);
        const V t222 = t220 + x18;
        const V t223 = c[4] * t220;
        const V t224 = x18 - t223;
        const V t225 = c[5] * t221;
        // real block of 5, multiplier 2
        const V t226 = t204 + t222;
        const V t227 = t204 - t222;
        const V t228 = t216 + t210;
        const V t229 = t216 - t210;
        const V t230 = t226 + t228;
        const V t231 = t230 + t198;
        const V t232 = c[0] * t226;
        const V t233 = t198 - t232;
        const V t234 = c[1] * t228;
        const V t235 = t233 + t234;
        const V t236 = c[2] * t227;
        const V t237 = c[3] * t229;
        const V t238 = t236 + t237;
        const V t239 = c[1] * t226;
        const V t240 = c[0] * t228;
        const V t241 = t239 - t240;
        const V t242 = t241 + t198;
        const V t243 = c[3] * t227;
        const V t244 = c[2] * t229;
        const V t245 = t243 - t244;
        // complex block of 5, multiplier 2
        const V t246 = t206 + t224;
        const V t247 = t207 + t225;
        const V t248 = t206 - t224;
        const V t249 = t207 - t225;
        const V t250 = t218 + t212;
        const V t251 = t219 + t213;
        const V t252 = t218 - t212;
        const V t253 = t219 - t213;
        const V t254 = t246 + t250;
        const V t255 = t247 + t251;
        const V t256 = t254 + t200;
        const V t257 = t255 + t201;
        const V t258 = c[1] * t246;
        const V t259 = c[0] * t250;
        const V t260 = t258 - t259;
        const V t261 = t260 + t200;
        const V t262 = c[1] * t247;
        const V t263 = c[0] * t251;
        const V t264 = t262 - t263;
        const V t265 = t264 + t201;
        const V t266 = c[3] * t248;
        const V t267 = c[2] * t252;
        const V t268 = t266 - t267;
        const V t269 = c[3] * t249;
        const V t270 = c[2] * t253;
        const V t271 = t269 - t270;
        const V t272 = t261 + t271;
        const V t273 = t265 - t268;
        const V t274 = t261 - t271;
        const V t275 = t265 + t268;
        const V t276 = c[0] * t246;
        const V t277 = t200 - t276;
        const V t278 = c[1] * t250;
        const V t279 = t277 + t278;
        const V t280 = c[0] * t247;
        const V t281 = t201 - t280;
        const V t282 = c[1] * t251;
        const V t283 = t281 + t282;
        const V t284 = c[2] * t248;
        const V t285 = c[3] * t252;
        const V t286 = t284 + t285;
        const V t287 = c[2] * t249;
        const V t288 = c[3] * t253;
        const V t289 = t287 + t288;
        const V t290 = t279 + t289;
        const V t291 = t283 - t286;
        const V t292 = t279 - t289;
        const V t293 = t283 + t286;
        // real block of 3, multiplier 2
        const V x5 = io.in(5);
        const V x25 = io.in(25);
        const V t294 = x5 + x25;
        const V t295 = x5 - x25;
        const V x45 = io.in(45);
        const V t296 = t294 + x45;
        const V t297 = c[4] * t294;
        const V t298 = x45 - t297;
        const V t299 = c[5] * t295;
        // real block of 3, multiplier 2
        const V x17 = io.in(17);
        const V x37 = io.in(37);
        const V t300 = x17 + x37;
        const V t301 = x17 - x37;
        const V x57 = io.in(57);
        const V t302 = t300 + x57;
        const V t303 = c[4] * t300;
        const V t304 = x57 - t303;
        const V t305 = c[5] * t301;
        // real block of 3, multiplier 2
        const V x29 = io.in(29);
        const V x49 = io.in(49);
        const V t306 = x29 + x49;
        const V t307 = x29 - x49;
        const V x9 = io.in(9);
        const V t308 = t306 + x9;
        const V t309 = c[4] * t306;
        const V t310 = x9 - t309;
        const V t311 = c[5] * t307;
        // real block of 3, multiplier 2
        const V x41 = io.in(41);
        const V x1 = io.in(1);
        const V t312 = x41 + x1;
        const V t313 = x41 - x1;
        const V x21 = io.in(21);
        const V t314 = t312 + x21;
        const V t315 = c[4] * t312;
        const V t316 = x21 - t315;
        const V t317 = c[5] * t313;
        // real block of 3, multiplier 2
        const V x53 = io.in(53);
        const V x13 = io.in(13);
        const V t318 = x53 + x13;
        const V t319 = x53 - x13;
        const V x33 = io.in(33);
        const V t320 = t318 + x33;
        const V t321 = c[4] * t318;
        const V t322 = x33 - t321;
        const V t323 = c[5] * t319;
        // real block of 5, multiplier 2
        const V t324 = t302 + t320;
        const V t325 = t302 - t320;
        const V t326 = t314 + t308;
        const V t327 = t314 - t308;
        const V t328 = t324 + t326;
        const V t329 = t328 + t296;
        const V t330 = c[0] * t324;
        const V t331 = t296 - t330;
        const V t332 = c[1] * t326;
        const V t333 = t331 + t332;
        const V t334 = c[2] * t325;
        const V t335 = c[3] * t327;
        const V t336 = t334 + t335;
        const V t337 = c[1] * t324;
        const V t338 = c[0] * t326;
        const V t339 = t337 - t338;
        const V t340 = t339 + t296;
        const V t341 = c[3] * t325;
        const V t342 = c[2] * t327;
        const V t343 = t341 - t342;
        // complex block of 5, multiplier 2
        const V t344 = t304 + t322;
        const V t345 = t305 + t323;
        const V t346 = t304 - t322;
        const V t347 = t305 - t323;
        const V t348 = t316 + t310;
        const V t349 = t317 + t311;
        const V t350 = t316 - t310;
        const V t351 = t317 - t311;
        const V t352 = t344 + t348;
        const V t353 = t345 + t349;
        const V t354 = t352 + t298;
        const V t355 = t353 + t299;
        const V t356 = c[1] * t344;
        const V t357 = c[0] * t348;
        const V t358 = t356 - t357;
        const V t359 = t358 + t298;
        const V t360 = c[1] * t345;
        const V t361 = c[0] * t349;
        const V t362 = t360 - t361;
        const V t363 = t362 + t299;
        const V t364 = c[3] * t346;
        const V t365 = c[2] * t350;
        const V t366 = t364 - t365;
        const V t367 = c[3] * t347;
        const V t368 = c[2] * t351;
        const V t369 = t367 - t368;
        const V t370 = t359 + t369;
        const V t371 = t363 - t366;
        const V t372 = t359 - t369;
        const V t373 = t363 + t366;
        const V t374 = c[0] * t344;
        const V t375 = t298 - t374;
        const V t376 = c[1] * t348;
        const V t377 = t375 + t376;
        const V t378 = c[0] * t345;
        const V t379 = t299 - t378;
        const V t380 = c[1] * t349;
        const V t381 = t379 + t380;
        const V t382 = c[2] * t346;
        const V t383 = c[3] * t350;
        const V t384 = t382 + t383;
        const V t385 = c[2] * t347;
        const V t386 = c[3] * t351;
        const V t387 = t385 + t386;
        const V t388 = t377 + t387;
        const V t389 = t381 - t384;
        const V t390 = t377 - t387;
        const V t391 = t381 + t384;
        // real block of 2
        const V t392 = t35 + t231;
        const V t393 = t35 - t231;
        io.re(15, t393);
        // real block of 2
        const V t394 = t133 + t329;
        const V t395 = t133 - t329;
        io.im(15, t395);
        // real block of 2
        const V t396 = t392 + t394;
        io.re(0, t396);
        const V t397 = t392 - t394;
        io.re(30, t397);
        // complex block of 2
        const V t398 = t76 + t272;
        const V t399 = t77 + t273;
        const V t400 = t76 - t272;
        const V t401 = t273 - t77;
        // complex block of 2
        const V t402 = t174 + t370;
        const V t403 = t175 + t371;
        const V t404 = t174 - t370;
        const V t405 = t371 - t175;
        // complex block of 2
        const V t406 = t398 + t402;
        io.re(4, t406);
        const V t407 = t399 + t403;
        io.minusIm(4, t407);
        const V t408 = t398 - t402;
        io.re(26, t408);
        const V t409 = t403 - t399;
        io.minusIm(26, t409);
        // complex block of 2
        const V t410 = t400 - t405;
        io.re(19, t410);
        const V t411 = t401 + t404;
        io.im(19, t411);
        const V t412 = t400 + t405;
        io.re(11, t412);
        const V t413 = t401 - t404;
        io.minusIm(11, t413);
        // complex block of 2
        const V t414 = t96 + t292;
        const V t415 = t97 + t293;
        const V t416 = t96 - t292;
        const V t417 = t97 - t293;
        // complex block of 2
        const V t418 = t194 + t390;
        const V t419 = t195 + t391;
        const V t420 = t194 - t390;
        const V t421 = t195 - t391;
        // complex block of 2
        const V t422 = t414 + t418;
        io.re(8, t422);
        const V t423 = t415 + t419;
        io.im(8, t423);
        const V t424 = t414 - t418;
        io.re(22, t424);
        const V t425 = t415 - t419;
        io.minusIm(22, t425);
        // complex block of 2
        const V t426 = t416 - t421;
        io.re(23, t426);
        const V t427 = t417 + t420;
        io.im(23, t427);
        const V t428 = t416 + t421;
        io.re(7, t428);
        const V t429 = t417 - t420;
        io.minusIm(7, t429);
        // complex block of 2
        const V t430 = t39 + t235;
        const V t431 = t42 + t238;
        const V t432 = t39 - t235;
        const V t433 = t238 - t42;
        // complex block of 2
        const V t434 = t137 + t333;
        const V t435 = t140 + t336;
        const V t436 = t137 - t333;
        const V t437 = t336 - t140;
        // complex block of 2
        const V t438 = t430 + t434;
        io.re(12, t438);
        const V t439 = t431 + t435;
        io.minusIm(12, t439);
        const V t440 = t430 - t434;
        io.re(18, t440);
        const V t441 = t435 - t431;
        io.minusIm(18, t441);
        // complex block of 2
        const V t442 = t432 - t437;
        io.re(27, t442);
        const V t443 = t433 + t436;
        io.im(27, t443);
        const V t444 = t432 + t437;
        io.re(3, t444);
        const V t445 = t433 - t436;
        io.minusIm(3, t445);
        // complex block of 2
        const V t446 = t78 + t274;
        const V t447 = t79 + t275;
        const V t448 = t78 - t274;
        const V t449 = t275 - t79;
        // complex block of 2
        const V t450 = t176 + t372;
        const V t451 = t177 + t373;
        const V t452 = t176 - t372;
        const V t453 = t373 - t177;
        // complex block of 2
        const V t454 = t446 + t450;
        io.re(16, t454);
        const V t455 = t447 + t451;
        io.minusIm(16, t455);
        const V t456 = t446 - t450;
        io.re(14, t456);
        const V t457 = t451 - t447;
        io.minusIm(14, t457);
        // complex block of 2
        const V t458 = t448 - t453;
        io.re(29, t458);
        const V t459 = t449 + t452;
        io.minusIm(29, t459);
        const V t460 = t448 + t453;
        io.re(1, t460);
        const V t461 = t449 - t452;
        io.im(1, t461);
        // complex block of 2
        const V t462 = t60 + t256;
        const V t463 = t61 + t257;
        const V t464 = t60 - t256;
        const V t465 = t61 - t257;
        // complex block of 2
        const V t466 = t158 + t354;
        const V t467 = t159 + t355;
        const V t468 = t158 - t354;
        const V t469 = t159 - t355;
        // complex block of 2
        const V t470 = t462 + t466;
        io.re(20, t470);
        const V t471 = t463 + t467;
        io.im(20, t471);
        const V t472 = t462 - t466;
        io.re(10, t472);
        const V t473 = t463 - t467;
        io.minusIm(10, t473);
        // complex block of 2
        const V t474 = t464 - t469;
        io.re(25, t474);
        const V t475 = t465 + t468;
        io.minusIm(25, t475);
        const V t476 = t464 + t469;
        io.re(5, t476);
        const V t477 = t465 - t468;
        io.im(5, t477);
        // complex block of 2
        const V t478 = t46 + t242;
        const V t479 = t49 + t245;
        const V t480 = t46 - t242;
        const V t481 = t49 - t245;
        // complex block of 2
        const V t482 = t144 + t340;
        const V t483 = t147 + t343;
        const V t484 = t144 - t340;
        const V t485 = t147 - t343;
        // complex block of 2
        const V t486 = t478 + t482;
        io.re(24, t486);
        const V t487 = t479 + t483;
        io.im(24, t487);
        const V t488 = t478 - t482;
        io.re(6, t488);
        const V t489 = t479 - t483;
        io.minusIm(6, t489);
        // complex block of 2
        const V t490 = t480 - t485;
        io.re(21, t490);
        const V t491 = t481 + t484;
        io.minusIm(21, t491);
        const V t492 = t480 + t485;
        io.re(9, t492);
        const V t493 = t481 - t484;
        io.im(9, t493);
        // complex block of 2
        const V t494 = t94 + t290;
        const V t495 = t95 + t291;
        const V t496 = t94 - t290;
        const V t497 = t291 - t95;
        // complex block of 2
        const V t498 = t192 + t388;
        const V t499 = t193 + t389;
        const V t500 = t192 - t388;
        const V t501 = t389 - t193;
        // complex block of 2
        const V t502 = t494 + t498;
        io.re(28, t502);
        const V t503 = t495 + t499;
        io.minusIm(28, t503);
        const V t504 = t494 - t498;
        io.re(2, t504);
        const V t505 = t499 - t495;
        io.minusIm(2, t505);
        // complex block of 2
        const V t506 = t496 - t501;
        io.re(17, t506);
        const V t507 = t497 + t500;
        io.minusIm(17, t507);
        const V t508 = t496 + t501;
        io.re(13, t508);
        const V t509 = t497 - t500;
        io.im(13, t509);
    }
};

}  // namespace zulg
