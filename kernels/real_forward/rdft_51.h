// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 51.
// Forward DFT of 51 real points, prime-factor 17, 3.
// 224 additions, 224 subtractions, 196 multiplications (247 with `scale`); 16 outputs negated; 21 constants; 53 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<51> {
    static constexpr int steps = 695;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.5,  // c[3]: -cos 2 pi 2/3
        0.8660254037844386,  // c[4]: -sin 2 pi 2/3
        0.281986371024157,  // c[5]: -Q[1] of 17
        0.4314031601143256,  // c[6]: -P[1] of 17
        0.51483037864984,  // c[7]: -Q[2] of 17
        0.023972509657154296,  // c[8]: P[2] of 17
        0.26714294104925057,  // c[9]: -Q[3] of 17
        0.4407489637509731,  // c[10]: -P[3] of 17
        0.31717619283272513,  // c[11]: -Q[4] of 17
        0.40623178445333147,  // c[12]: P[4] of 17
        0.08441888427414843,  // c[13]: -Q[5] of 17
        0.508427430394848,  // c[14]: P[5] of 17
        0.39103912897466114,  // c[15]: -Q[6] of 17
        0.33572816326715627,  // c[16]: P[6] of 17
        0.2616150950075063,  // c[17]: -Q[7] of 17
        0.4440524091413236,  // c[18]: -P[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x3 = io.in(3);
        const V x48 = io.in(48);
        const V t0 = x3 + x48;
        const V t1 = x3 - x48;
        // real block of 2
        const V x39 = io.in(39);
        const V x12 = io.in(12);
        const V t2 = x39 + x12;
        const V t3 = x39 - x12;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x9 = io.in(9);
        const V x42 = io.in(42);
        const V t6 = x9 + x42;
        const V t7 = x9 - x42;
        // real block of 2
        const V x15 = io.in(15);
        const V x36 = io.in(36);
        const V t8 = x15 + x36;
        const V t9 = x15 - x36;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x27 = io.in(27);
        const V x24 = io.in(24);
        const V t12 = x27 + x24;
        const V t13 = x27 - x24;
        // real block of 2
        const V x45 = io.in(45);
        const V x6 = io.in(6);
        const V t14 = x45 + x6;
        const V t15 = x45 - x6;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x30 = io.in(30);
        const V x21 = io.in(21);
        const V t18 = x30 + x21;
        const V t19 = x30 - x21;
        // real block of 2
        const V x33 = io.in(33);
        const V x18 = io.in(18);
        const V t20 = x33 + x18;
        const V t21 = x33 - x18;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V t24 = t4 + t16;
        const V t25 = t4 - t16;
        // real block of 2
        const V t26 = t10 + t22;
        const V t27 = t10 - t22;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 16
        const V t30 = c[0] * t9;
        const V t31 = c[1] * t7;
        const V t32 = t31 - t30;
        const V t33 = c[0] * t7;
        const V t34 = c[1] * t9;
        const V t35 = t34 + t33;
        const V t36 = t13 - t15;
        const V t37 = t15 + t13;
        const V t38 = c[2] * t36;
        const V t39 = c[2] * t37;
        const V t40 = c[1] * t21;
        const V t41 = c[0] * t19;
        const V t42 = t41 - t40;
        const V t43 = c[1] * t19;
        const V t44 = c[0] * t21;
        const V t45 = t44 + t43;
        // complex block of 2
        const V t46 = t1 + t38;
        const V t47 = t3 + t39;
        const V t48 = t1 - t38;
        const V t49 = t39 - t3;
        // complex block of 2
        const V t50 = t32 + t42;
        const V t51 = t35 + t45;
        const V t52 = t32 - t42;
        const V t53 = t45 - t35;
        // complex block of 2
        const V t54 = t46 + t50;
        const V t55 = t47 + t51;
        const V t56 = t46 - t50;
        const V t57 = t51 - t47;
        // complex block of 2
        const V t58 = t48 + t53;
        const V t59 = t49 - t52;
        const V t60 = t48 - t53;
        const V t61 = t49 + t52;
        // skew block of 4
        const V t62 = t11 - t23;
        const V t63 = c[2] * t62;
        const V t64 = t11 + t23;
        const V t65 = c[2] * t64;
        const V t66 = t65 - t17;
        const V t67 = t5 + t63;
        const V t68 = t17 + t65;
        const V t69 = t5 - t63;
        // real block of 17, multiplier 3
        const V x0 = io.in(0);
        const V t70 = x0 + t28;
        const V t71 = c[19] * t28;
        const V t72 = x0 - t71;
        const V t73 = c[5] * t55;
        const V t74 = c[6] * t54;
        const V t75 = t74 + t73;
        const V t76 = c[5] * t54;
        const V t77 = c[6] * t55;
        const V t78 = t77 - t76;
        const V t79 = c[7] * t68;
        const V t80 = c[8] * t67;
        const V t81 = t80 - t79;
        const V t82 = c[7] * t67;
        const V t83 = c[8] * t68;
        const V t84 = t83 + t82;
        const V t85 = c[9] * t61;
        const V t86 = c[10] * t60;
        const V t87 = t86 + t85;
        const V t88 = c[9] * t60;
        const V t89 = c[10] * t61;
        const V t90 = t89 - t88;
        const V t91 = c[11] * t27;
        const V t92 = c[12] * t25;
        const V t93 = t92 - t91;
        const V t94 = c[11] * t25;
        const V t95 = c[12] * t27;
        const V t96 = t95 + t94;
        const V t97 = c[13] * t59;
        const V t98 = c[14] * t58;
        const V t99 = t98 + t97;
        const V t100 = c[13] * t58;
        const V t101 = c[14] * t59;
        const V t102 = t101 - t100;
        const V t103 = c[15] * t66;
        const V t104 = c[16] * t69;
        const V t105 = t104 - t103;
        const V t106 = c[15] * t69;
        const V t107 = c[16] * t66;
        const V t108 = t107 + t106;
        const V t109 = c[17] * t57;
        const V t110 = c[18] * t56;
        const V t111 = t110 + t109;
        const V t112 = c[17] * t56;
        const V t113 = c[18] * t57;
        const V t114 = t113 - t112;
        const V t115 = c[20] * t29;
        // spectrum block of 2
        const V t116 = t72 - t115;
        const V t117 = t72 + t115;
        // spectrum block of 2
        const V t118 = t116 + t93;
        const V t119 = t116 - t93;
        // spectrum block of 2
        const V t120 = t117 + t96;
        const V t121 = t117 - t96;
        // mirrored skew block of 4
        const V t122 = t81 - t105;
        const V t123 = c[2] * t122;
        const V t124 = t84 + t108;
        const V t125 = c[2] * t124;
        const V t126 = t81 + t105;
        const V t127 = t123 + t125;
        const V t128 = t108 - t84;
        const V t129 = t123 - t125;
        // spectrum block of 2
        const V t130 = t118 + t126;
        const V t131 = t118 - t126;
        // spectrum block of 2
        const V t132 = t120 + t127;
        const V t133 = t120 - t127;
        // spectrum block of 2
        const V t134 = t119 - t128;
        const V t135 = t119 + t128;
        // spectrum block of 2
        const V t136 = t121 - t129;
        const V t137 = t121 + t129;
        // complex block of 2
        const V t138 = t75 - t111;
        const V t139 = t78 + t114;
        const V t140 = t75 + t111;
        const V t141 = t78 - t114;
        // complex block of 2
        const V t142 = t99 + t87;
        const V t143 = t102 + t90;
        const V t144 = t87 - t99;
        const V t145 = t102 - t90;
        // complex block of 2
        const V t146 = t138 - t142;
        const V t147 = t139 + t143;
        const V t148 = t138 + t142;
        const V t149 = t139 - t143;
        // complex block of 2
        const V t150 = t140 + t145;
        const V t151 = t141 - t144;
        const V t152 = t140 - t145;
        const V t153 = t141 + t144;
        // mirrored skew block of 8
        const V t154 = c[0] * t150;
        const V t155 = c[1] * t151;
        const V t156 = t155 - t154;
        const V t157 = c[0] * t151;
        const V t158 = c[1] * t150;
        const V t159 = t158 + t157;
        const V t160 = c[2] * t149;
        const V t161 = c[2] * t148;
        const V t162 = t160 + t161;
        const V t163 = t161 - t160;
        const V t164 = c[1] * t152;
        const V t165 = c[0] * t153;
        const V t166 = t165 - t164;
        const V t167 = c[1] * t153;
        const V t168 = c[0] * t152;
        const V t169 = t168 + t167;
        // real block of 2
        const V x20 = io.in(20);
        const V x14 = io.in(14);
        const V t170 = x20 + x14;
        const V t171 = x20 - x14;
        // real block of 2
        const V x5 = io.in(5);
        const V x29 = io.in(29);
        const V t172 = x5 + x29;
        const V t173 = x5 - x29;
        // real block of 2
        const V t174 = t170 + t172;
        const V t175 = t170 - t172;
        // real block of 2
        const V x26 = io.in(26);
        const V x8 = io.in(8);
        const V t176 = x26 + x8;
        const V t177 = x26 - x8;
        // real block of 2
        const V x32 = io.in(32);
        const V x2 = io.in(2);
        const V t178 = x32 + x2;
        const V t179 = x32 - x2;
        // real block of 2
        const V t180 = t176 + t178;
        const V t181 = t176 - t178;
        // real block of 2
        const V x44 = io.in(44);
        const V x41 = io.in(41);
        const V t182 = x44 + x41;
        const V t183 = x44 - x41;
        // real block of 2
        const V x11 = io.in(11);
        const V x23 = io.in(23);
        const V t184 = x11 + x23;
        const V t185 = x11 - x23;
        // real block of 2
        const V t186 = t182 + t184;
        const V t187 = t182 - t184;
        // real block of 2
        const V x47 = io.in(47);
        const V x38 = io.in(38);
        const V t188 = x47 + x38;
        const V t189 = x47 - x38;
        // real block of 2
        const V x50 = io.in(50);
        const V x35 = io.in(35);
        const V t190 = x50 + x35;
        const V t191 = x50 - x35;
        // real block of 2
        const V t192 = t188 + t190;
        const V t193 = t188 - t190;
        // real block of 2
        const V t194 = t174 + t186;
        const V t195 = t174 - t186;
        // real block of 2
        const V t196 = t180 + t192;
        const V t197 = t180 - t192;
        // real block of 2
        const V t198 = t194 + t196;
        const V t199 = t194 - t196;
        // real block of 16
        const V t200 = c[0] * t179;
        const V t201 = c[1] * t177;
        const V t202 = t201 - t200;
        const V t203 = c[0] * t177;
        const V t204 = c[1] * t179;
        const V t205 = t204 + t203;
        const V t206 = t183 - t185;
        const V t207 = t185 + t183;
        const V t208 = c[2] * t206;
        const V t209 = c[2] * t207;
        const V t210 = c[1] * t191;
        const V t211 = c[0] * t189;
        const V t212 = t211 - t210;
        const V t213 = c[1] * t189;
        const V t214 = c[0] * t191;
        const V t215 = t214 + t213;
        // complex block of 2
        const V t216 = t171 + t208;
        const V t217 = t173 + t209;
        const V t218 = t171 - t208;
        const V t219 = t209 - t173;
        // complex block of 2
        const V t220 = t202 + t212;
        const V t221 = t205 + t215;
        const V t222 = t202 - t212;
        const V t223 = t215 - t205;
        // complex block of 2
        const V t224 = t216 + t220;
        const V t225 = t217 + t221;
        const V t226 = t216 - t220;
        const V t227 = t221 - t217;
        // complex block of 2
        const V t228 = t218 + t223;
        const V t229 = t219 - t222;
        const V t230 = t218 - t223;
        const V t231 = t219 + t222;
        // skew block of 4
        const V t232 = t181 - t193;
        const V t233 = c[2] * t232;
        const V t234 = t181 + t193;
        const V t235 = c[2] * t234;
        const V t236 = t235 - t187;
        const V t237 = t175 + t233;
        const V t238 = t187 + t235;
        const V t239 = t175 - t233;
        // real block of 17, multiplier 3
        const V x17 = io.in(17);
        const V t240 = x17 + t198;
        const V t241 = c[19] * t198;
        const V t242 = x17 - t241;
        const V t243 = c[5] * t225;
        const V t244 = c[6] * t224;
        const V t245 = t244 + t243;
        const V t246 = c[5] * t224;
        const V t247 = c[6] * t225;
        const V t248 = t247 - t246;
        const V t249 = c[7] * t238;
        const V t250 = c[8] * t237;
        const V t251 = t250 - t249;
        const V t252 = c[7] * t237;
        const V t253 = c[8] * t238;
        const V t254 = t253 + t252;
        const V t255 = c[9] * t231;
        const V t256 = c[10] * t230;
        const V t257 = t256 + t255;
        const V t258 = c[9] * t230;
        const V t259 = c[10] * t231;
        const V t260 = t259 - t258;
        const V t261 = c[11] * t197;
        const V t262 = c[12] * t195;
        const V t263 = t262 - t261;
        const V t264 = c[11] * t195;
        const V t265 = c[12] * t197;
        const V t266 = t265 + t264;
        const V t267 = c[13] * t229;
        const V t268 = c[14] * t228;
        const V t269 = t268 + t267;
        const V t270 = c[13] * t228;
        const V t271 = c[14] * t229;
        const V t272 = t271 - t270;
        const V t273 = c[15] * t236;
        const V t274 = c[16] * t239;
        const V t275 = t274 - t273;
        const V t276 = c[15] * t239;
        const V t277 = c[16] * t236;
        const V t278 = t277 + t276;
        const V t279 = c[17] * t227;
        const V t280 = c[18] * t226;
        const V t281 = t280 + t279;
        const V t282 = c[17] * t226;
        const V t283 = c[18] * t227;
        const V t284 = t283 - t282;
        const V t285 = c[20] * t199;
        // spectrum block of 2
        const V t286 = t242 - t285;
        const V t287 = t242 + t285;
        // spectrum block of 2
        const V t288 = t286 + t263;
        const V t289 = t286 - t263;
        // spectrum block of 2
        const V t290 = t287 + t266;
        const V t291 = t287 - t266;
        // mirrored skew block of 4
        const V t292 = t251 - t275;
        const V t293 = c[2] * t292;
        const V t294 = t254 + t278;
        const V t295 = c[2] * t294;
        const V t296 = t251 + t275;
        const V t297 = t293 + t295;
        const V t298 = t278 - t254;
        const V t299 = t293 - t295;
        // spectrum block of 2
        const V t300 = t288 + t296;
        const V t301 = t288 - t296;
        // spectrum block of 2
        const V t302 = t290 + t297;
        const V t303 = t290 - t297;
        // spectrum block of 2
        const V t304 = t289 - t298;
        const V t305 = t289 + t298;
        // spectrum block of 2
        const V t306 = t291 - t299;
        const V t307 = t291 + t299;
        // complex block of 2
        const V t308 = t245 - t281;
        const V t309 = t248 + t284;
        const V t310 = t245 + t281;
        const V t311 = t248 - t284;
        // complex block of 2
        const V t312 = t269 + t257;
        const V t313 = t272 + t260;
        const V t314 = t257 - t269;
        const V t315 = t272 - t260;
        // complex block of 2
        const V t316 = t308 - t312;
        const V t317 = t309 + t313;
        const V t318 = t308 + t312;
        const V t319 = t309 - t313;
        // complex block of 2
        const V t320 = t310 + t315;
        const V t321 = t311 - t314;
        const V t322 = t310 - t315;
        const V t323 = t311 + t314;
        // mirrored skew block of 8
        const V t324 = c[0] * t320;
        const V t325 = c[1] * t321;
        const V t326 = t325 - t324;
        const V t327 = c[0] * t321;
        const V t328 = c[1] * t320;
        const V t329 = t328 + t327;
        const V t330 = c[2] * t319;
        const V t331 = c[2] * t318;
        const V t332 = t330 + t331;
        const V t333 = t331 - t330;
        const V t334 = c[1] * t322;
        const V t335 = c[0] * t323;
        const V t336 = t335 - t334;
        const V t337 = c[1] * t323;
        const V t338 = c[0] * t322;
        const V t339 = t338 + t337;
        // real block of 2
        const V x37 = io.in(37);
        const V x31 = io.in(31);
        const V t340 = x37 + x31;
        const V t341 = x37 - x31;
        // real block of 2
        const V x22 = io.in(22);
        const V x46 = io.in(46);
        const V t342 = x22 + x46;
        const V t343 = x22 - x46;
        // real block of 2
        const V t344 = t340 + t342;
        const V t345 = t340 - t342;
        // real block of 2
        const V x43 = io.in(43);
        const V x25 = io.in(25);
        const V t346 = x43 + x25;
        const V t347 = x43 - x25;
        // real block of 2
        const V x49 = io.in(49);
        const V x19 = io.in(19);
        const V t348 = x49 + x19;
        const V t349 = x49 - x19;
        // real block of 2
        const V t350 = t346 + t348;
        const V t351 = t346 - t348;
        // real block of 2
        const V x10 = io.in(10);
        const V x7 = io.in(7);
        const V t352 = x10 + x7;
        const V t353 = x10 - x7;
        // real block of 2
        const V x28 = io.in(28);
        const V x40 = io.in(40);
        const V t354 = x28 + x40;
        const V t355 = x28 - x40;
        // real block of 2
        const V t356 = t352 + t354;
        const V t357 = t352 - t354;
        // real block of 2
        const V x13 = io.in(13);
        const V x4 = io.in(4);
        const V t358 = x13 + x4;
        const V t359 = x13 - x4;
        // real block of 2
        const V x16 = io.in(16);
        const V x1 = io.in(1);
        const V t360 = x16 + x1;
        const V t361 = x16 - x1;
        // real block of 2
        const V t362 = t358 + t360;
        const V t363 = t358 - t360;
        // real block of 2
        const V t364 = t344 + t356;
        const V t365 = t344 - t356;
        // real block of 2
        const V t366 = t350 + t362;
        const V t367 = t350 - t362;
        // real block of 2
        const V t368 = t364 + t366;
        const V t369 = t364 - t366;
        // real block of 16
        const V t370 = c[0] * t349;
        const V t371 = c[1] * t347;
        const V t372 = t371 - t370;
        const V t373 = c[0] * t347;
        const V t374 = c[1] * t349;
        const V t375 = t374 + t373;
        const V t376 = t353 - t355;
        const V t377 = t355 + t353;
        const V t378 = c[2] * t376;
        const V t379 = c[2] * t377;
        const V t380 = c[1] * t361;
        const V t381 = c[0] * t359;
        const V t382 = t381 - t380;
        const V t383 = c[1] * t359;
        const V t384 = c[0] * t361;
        const V t385 = t384 + t383;
        // complex block of 2
        const V t386 = t341 + t378;
        const V t387 = t343 + t379;
        const V t388 = t341 - t378;
        const V t389 = t379 - t343;
        // complex block of 2
        const V t390 = t372 + t382;
        const V t391 = t375 + t385;
        const V t392 = t372 - t382;
        const V t393 = t385 - t375;
        // complex block of 2
        const V t394 = t386 + t390;
        const V t395 = t387 + t391;
        const V t396 = t386 - t390;
        const V t397 = t391 - t387;
        // complex block of 2
        const V t398 = t388 + t393;
        const V t399 = t389 - t392;
        const V t400 = t388 - t393;
        const V t401 = t389 + t392;
        // skew block of 4
        const V t402 = t351 - t363;
        const V t403 = c[2] * t402;
        const V t404 = t351 + t363;
        const V t405 = c[2] * t404;
        const V t406 = t405 - t357;
        const V t407 = t345 + t403;
        const V t408 = t357 + t405;
        const V t409 = t345 - t403;
        // real block of 17, multiplier 3
        const V x34 = io.in(34);
        const V t410 = x34 + t368;
        const V t411 = c[19] * t368;
        const V t412 = x34 - t411;
        const V t413 = c[5] * t395;
        const V t414 = c[6] * t394;
        const V t415 = t414 + t413;
        const V t416 = c[5] * t394;
        const V t417 = c[6] * t395;
        const V t418 = t417 - t416;
        const V t419 = c[7] * t408;
        const V t420 = c[8] * t407;
        const V t421 = t420 - t419;
        const V t422 = c[7] * t407;
        const V t423 = c[8] * t408;
        const V t424 = t423 + t422;
        const V t425 = c[9] * t401;
        const V t426 = c[10] * t400;
        const V t427 = t426 + t425;
        const V t428 = c[9] * t400;
        const V t429 = c[10] * t401;
        const V t430 = t429 - t428;
        const V t431 = c[11] * t367;
        const V t432 = c[12] * t365;
        const V t433 = t432 - t431;
        const V t434 = c[11] * t365;
        const V t435 = c[12] * t367;
        const V t436 = t435 + t434;
        const V t437 = c[13] * t399;
        const V t438 = c[14] * t398;
        const V t439 = t438 + t437;
        const V t440 = c[13] * t398;
        const V t441 = c[14] * t399;
        const V t442 = t441 - t440;
        const V t443 = c[15] * t406;
        const V t444 = c[16] * t409;
        const V t445 = t444 - t443;
        const V t446 = c[15] * t409;
        const V t447 = c[16] * t406;
        const V t448 = t447 + t446;
        const V t449 = c[17] * t397;
        const V t450 = c[18] * t396;
        const V t451 = t450 + t449;
        const V t452 = c[17] * t396;
        const V t453 = c[18] * t397;
        const V t454 = t453 - t452;
        const V t455 = c[20] * t369;
        // spectrum block of 2
        const V t456 = t412 - t455;
        const V t457 = t412 + t455;
        // spectrum block of 2
        const V t458 = t456 + t433;
        const V t459 = t456 - t433;
        // spectrum block of 2
        const V t460 = t457 + t436;
        const V t461 = t457 - t436;
        // mirrored skew block of 4
        const V t462 = t421 - t445;
        const V t463 = c[2] * t462;
        const V t464 = t424 + t448;
        const V t465 = c[2] * t464;
        const V t466 = t421 + t445;
        const V t467 = t463 + t465;
        const V t468 = t448 - t424;
        const V t469 = t463 - t465;
        // spectrum block of 2
        const V t470 = t458 + t466;
        const V t471 = t458 - t466;
        // spectrum block of 2
        const V t472 = t460 + t467;
        const V t473 = t460 - t467;
        // spectrum block of 2
        const V t474 = t459 - t468;
        const V t475 = t459 + t468;
        // spectrum block of 2
        const V t476 = t461 - t469;
        const V t477 = t461 + t469;
        // complex block of 2
        const V t478 = t415 - t451;
        const V t479 = t418 + t454;
        const V t480 = t415 + t451;
        const V t481 = t418 - t454;
        // complex block of 2
        const V t482 = t439 + t427;
        const V t483 = t442 + t430;
        const V t484 = t427 - t439;
        const V t485 = t442 - t430;
        // complex block of 2
        const V t486 = t478 - t482;
        const V t487 = t479 + t483;
        const V t488 = t478 + t482;
        const V t489 = t479 - t483;
        // complex block of 2
        const V t490 = t480 + t485;
        const V t491 = t481 - t484;
        const V t492 = t480 - t485;
        const V t493 = t481 + t484;
        // mirrored skew block of 8
        const V t494 = c[0] * t490;
        const V t495 = c[1] * t491;
        const V t496 = t495 - t494;
        const V t497 = c[0] * t491;
        const V t498 = c[1] * t490;
        const V t499 = t498 + t497;
        const V t500 = c[2] * t489;
        const V t501 = c[2] * t488;
        const V t502 = t500 + t501;
        const V t503 = t501 - t500;
        const V t504 = c[1] * t492;
        const V t505 = c[0] * t493;
        const V t506 = t505 - t504;
        const V t507 = c[1] * t493;
        const V t508 = c[0] * t492;
        const V t509 = t508 + t507;
        // real block of 3, multiplier 2
        const V t510 = t240 + t410;
        const V t511 = t240 - t410;
        const V t512 = t510 + t70;
        io.re(0, t512);
        const V t513 = c[3] * t510;
        const V t514 = t70 - t513;
        io.re(17, t514);
        const V t515 = c[4] * t511;
        io.im(17, t515);
        // complex block of 3, multiplier 2
        const V t516 = t300 + t470;
        const V t517 = t317 + t487;
        const V t518 = t300 - t470;
        const V t519 = t317 - t487;
        const V t520 = t516 + t130;
        io.re(3, t520);
        const V t521 = t517 + t147;
        io.im(3, t521);
        const V t522 = c[3] * t516;
        const V t523 = t130 - t522;
        const V t524 = c[3] * t517;
        const V t525 = t147 - t524;
        const V t526 = c[4] * t518;
        const V t527 = c[4] * t519;
        const V t528 = t523 + t527;
        io.re(14, t528);
        const V t529 = t525 - t526;
        io.minusIm(14, t529);
        const V t530 = t523 - t527;
        io.re(20, t530);
        const V t531 = t525 + t526;
        io.im(20, t531);
        // complex block of 3, multiplier 2
        const V t532 = t304 + t474;
        const V t533 = t333 + t503;
        const V t534 = t304 - t474;
        const V t535 = t503 - t333;
        const V t536 = t532 + t134;
        io.re(6, t536);
        const V t537 = t533 + t163;
        io.minusIm(6, t537);
        const V t538 = c[3] * t532;
        const V t539 = t134 - t538;
        const V t540 = c[3] * t533;
        const V t541 = t540 - t163;
        const V t542 = c[4] * t534;
        const V t543 = c[4] * t535;
        const V t544 = t539 + t543;
        io.re(11, t544);
        const V t545 = t541 - t542;
        io.minusIm(11, t545);
        const V t546 = t539 - t543;
        io.re(23, t546);
        const V t547 = t541 + t542;
        io.im(23, t547);
        // complex block of 3, multiplier 2
        const V t548 = t307 + t477;
        const V t549 = t339 + t509;
        const V t550 = t307 - t477;
        const V t551 = t339 - t509;
        const V t552 = t548 + t137;
        io.re(9, t552);
        const V t553 = t549 + t169;
        io.im(9, t553);
        const V t554 = c[3] * t548;
        const V t555 = t137 - t554;
        const V t556 = c[3] * t549;
        const V t557 = t169 - t556;
        const V t558 = c[4] * t550;
        const V t559 = c[4] * t551;
        const V t560 = t555 + t559;
        io.re(8, t560);
        const V t561 = t557 - t558;
        io.minusIm(8, t561);
        const V t562 = t555 - t559;
        io.re(25, t562);
        const V t563 = t557 + t558;
        io.minusIm(25, t563);
        // complex block of 3, multiplier 2
        const V t564 = t301 + t471;
        const V t565 = t316 + t486;
        const V t566 = t301 - t471;
        const V t567 = t486 - t316;
        const V t568 = t564 + t131;
        io.re(12, t568);
        const V t569 = t565 + t146;
        io.minusIm(12, t569);
        const V t570 = c[3] * t564;
        const V t571 = t131 - t570;
        const V t572 = c[3] * t565;
        const V t573 = t572 - t146;
        const V t574 = c[4] * t566;
        const V t575 = c[4] * t567;
        const V t576 = t571 + t575;
        io.re(5, t576);
        const V t577 = t573 - t574;
        io.minusIm(5, t577);
        const V t578 = t571 - t575;
        io.re(22, t578);
        const V t579 = t573 + t574;
        io.minusIm(22, t579);
        // complex block of 3, multiplier 2
        const V t580 = t306 + t476;
        const V t581 = t336 + t506;
        const V t582 = t306 - t476;
        const V t583 = t506 - t336;
        const V t584 = t580 + t136;
        io.re(15, t584);
        const V t585 = t581 + t166;
        io.minusIm(15, t585);
        const V t586 = c[3] * t580;
        const V t587 = t136 - t586;
        const V t588 = c[3] * t581;
        const V t589 = t588 - t166;
        const V t590 = c[4] * t582;
        const V t591 = c[4] * t583;
        const V t592 = t587 + t591;
        io.re(2, t592);
        const V t593 = t589 - t590;
        io.minusIm(2, t593);
        const V t594 = t587 - t591;
        io.re(19, t594);
        const V t595 = t589 + t590;
        io.minusIm(19, t595);
        // complex block of 3, multiplier 2
        const V t596 = t302 + t472;
        const V t597 = t326 + t496;
        const V t598 = t302 - t472;
        const V t599 = t326 - t496;
        const V t600 = t596 + t132;
        io.re(18, t600);
        const V t601 = t597 + t156;
        io.im(18, t601);
        const V t602 = c[3] * t596;
        const V t603 = t132 - t602;
        const V t604 = c[3] * t597;
        const V t605 = t156 - t604;
        const V t606 = c[4] * t598;
        const V t607 = c[4] * t599;
        const V t608 = t603 + t607;
        io.re(1, t608);
        const V t609 = t605 - t606;
        io.im(1, t609);
        const V t610 = t603 - t607;
        io.re(16, t610);
        const V t611 = t605 + t606;
        io.minusIm(16, t611);
        // complex block of 3, multiplier 2
        const V t612 = t303 + t473;
        const V t613 = t329 + t499;
        const V t614 = t303 - t473;
        const V t615 = t499 - t329;
        const V t616 = t612 + t133;
        io.re(21, t616);
        const V t617 = t613 + t159;
        io.minusIm(21, t617);
        const V t618 = c[3] * t612;
        const V t619 = t133 - t618;
        const V t620 = c[3] * t613;
        const V t621 = t620 - t159;
        const V t622 = c[4] * t614;
        const V t623 = c[4] * t615;
        const V t624 = t619 + t623;
        io.re(4, t624);
        const V t625 = t621 - t622;
        io.im(4, t625);
        const V t626 = t619 - t623;
        io.re(13, t626);
        const V t627 = t621 + t622;
        io.minusIm(13, t627);
        // complex block of 3, multiplier 2
        const V t628 = t305 + t475;
        const V t629 = t332 + t502;
        const V t630 = t305 - t475;
        const V t631 = t502 - t332;
        const V t632 = t628 + t135;
        io.re(24, t632);
        const V t633 = t629 + t162;
        io.minusIm(24, t633);
        const V t634 = c[3] * t628;
        const V t635 = t135 - t634;
        const V t636 = c[3] * t629;
        const V t637 = t636 - t162;
        const V t638 = c[4] * t630;
        const V t639 = c[4] * t631;
        const V t640 = t635 + t639;
        io.re(7, t640);
        const V t641 = t637 - t638;
        io.im(7, t641);
        const V t642 = t635 - t639;
        io.re(10, t642);
        const V t643 = t637 + t638;
        io.minusIm(10, t643);
    }
};

}  // namespace zulg
