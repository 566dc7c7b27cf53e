// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 51.
// Hartley transform of 51 points, form I.
// 249 additions, 249 subtractions, 196 multiplications (247 with `scale`); 21 constants; 54 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<51> {
    static constexpr int steps = 745;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.9238795325112867,  // c[2]: cos 2 pi 1/16
        0.5,  // c[3]: -cos 2 pi 1/3
        0.8660254037844386,  // c[4]: sin 2 pi 1/3
        0.4314031601143256,  // c[5]: P[1] of 17
        0.281986371024157,  // c[6]: -Q[1] of 17
        0.51483037864984,  // c[7]: -Q[2] of 17
        0.023972509657154296,  // c[8]: P[2] of 17
        0.4407489637509731,  // c[9]: P[3] of 17
        0.26714294104925057,  // c[10]: -Q[3] of 17
        0.31717619283272513,  // c[11]: -Q[4] of 17
        0.40623178445333147,  // c[12]: P[4] of 17
        0.508427430394848,  // c[13]: -P[5] of 17
        0.08441888427414843,  // c[14]: -Q[5] of 17
        0.39103912897466114,  // c[15]: -Q[6] of 17
        0.33572816326715627,  // c[16]: P[6] of 17
        0.4440524091413236,  // c[17]: P[7] of 17
        0.2616150950075063,  // c[18]: -Q[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x50 = io.in(50);
        const V t0 = x1 + x50;
        const V t1 = x1 - x50;
        const V x2 = io.in(2);
        const V x49 = io.in(49);
        const V t2 = x2 + x49;
        const V t3 = x2 - x49;
        const V x3 = io.in(3);
        const V x48 = io.in(48);
        const V t4 = x3 + x48;
        const V t5 = x3 - x48;
        const V x4 = io.in(4);
        const V x47 = io.in(47);
        const V t6 = x4 + x47;
        const V t7 = x4 - x47;
        const V x5 = io.in(5);
        const V x46 = io.in(46);
        const V t8 = x5 + x46;
        const V t9 = x5 - x46;
        const V x6 = io.in(6);
        const V x45 = io.in(45);
        const V t10 = x6 + x45;
        const V t11 = x6 - x45;
        const V x7 = io.in(7);
        const V x44 = io.in(44);
        const V t12 = x7 + x44;
        const V t13 = x7 - x44;
        const V x8 = io.in(8);
        const V x43 = io.in(43);
        const V t14 = x8 + x43;
        const V t15 = x8 - x43;
        const V x9 = io.in(9);
        const V x42 = io.in(42);
        const V t16 = x9 + x42;
        const V t17 = x9 - x42;
        const V x10 = io.in(10);
        const V x41 = io.in(41);
        const V t18 = x10 + x41;
        const V t19 = x10 - x41;
        const V x11 = io.in(11);
        const V x40 = io.in(40);
        const V t20 = x11 + x40;
        const V t21 = x11 - x40;
        const V x12 = io.in(12);
        const V x39 = io.in(39);
        const V t22 = x12 + x39;
        const V t23 = x12 - x39;
        const V x13 = io.in(13);
        const V x38 = io.in(38);
        const V t24 = x13 + x38;
        const V t25 = x13 - x38;
        const V x14 = io.in(14);
        const V x37 = io.in(37);
        const V t26 = x14 + x37;
        const V t27 = x14 - x37;
        const V x15 = io.in(15);
        const V x36 = io.in(36);
        const V t28 = x15 + x36;
        const V t29 = x15 - x36;
        const V x16 = io.in(16);
        const V x35 = io.in(35);
        const V t30 = x16 + x35;
        const V t31 = x16 - x35;
        const V x17 = io.in(17);
        const V x34 = io.in(34);
        const V t32 = x17 + x34;
        const V t33 = x17 - x34;
        const V x18 = io.in(18);
        const V x33 = io.in(33);
        const V t34 = x18 + x33;
        const V t35 = x18 - x33;
        const V x19 = io.in(19);
        const V x32 = io.in(32);
        const V t36 = x19 + x32;
        const V t37 = x19 - x32;
        const V x20 = io.in(20);
        const V x31 = io.in(31);
        const V t38 = x20 + x31;
        const V t39 = x20 - x31;
        const V x21 = io.in(21);
        const V x30 = io.in(30);
        const V t40 = x21 + x30;
        const V t41 = x21 - x30;
        const V x22 = io.in(22);
        const V x29 = io.in(29);
        const V t42 = x22 + x29;
        const V t43 = x22 - x29;
        const V x23 = io.in(23);
        const V x28 = io.in(28);
        const V t44 = x23 + x28;
        const V t45 = x23 - x28;
        const V x24 = io.in(24);
        const V x27 = io.in(27);
        const V t46 = x24 + x27;
        const V t47 = x24 - x27;
        const V x25 = io.in(25);
        const V x26 = io.in(26);
        const V t48 = x25 + x26;
        const V t49 = x25 - x26;
        // spectrum block of 3, multiplier 2
        const V x0 = io.in(0);
        const V t50 = t32 + x0;
        const V t51 = c[3] * t32;
        const V t52 = x0 - t51;
        const V t53 = c[4] * t33;
        const V t54 = t52 - t53;
        const V t55 = t52 + t53;
        // complex block of 3, multiplier 2
        const V t56 = t39 - t27;
        const V t57 = t38 + t26;
        const V t58 = t39 + t27;
        const V t59 = t38 - t26;
        const V t60 = t56 + t5;
        const V t61 = t57 + t4;
        const V t62 = c[3] * t56;
        const V t63 = t5 - t62;
        const V t64 = c[3] * t57;
        const V t65 = t4 - t64;
        const V t66 = c[4] * t58;
        const V t67 = c[4] * t59;
        const V t68 = t63 + t67;
        const V t69 = t65 - t66;
        const V t70 = t63 - t67;
        const V t71 = t65 + t66;
        // complex block of 3, multiplier 2
        const V t72 = t45 - t21;
        const V t73 = t44 + t20;
        const V t74 = t45 + t21;
        const V t75 = t44 - t20;
        const V t76 = t72 + t11;
        const V t77 = t73 + t10;
        const V t78 = c[3] * t72;
        const V t79 = t11 - t78;
        const V t80 = c[3] * t73;
        const V t81 = t10 - t80;
        const V t82 = c[4] * t74;
        const V t83 = c[4] * t75;
        const V t84 = t79 + t83;
        const V t85 = t81 - t82;
        const V t86 = t79 - t83;
        const V t87 = t81 + t82;
        // complex block of 3, multiplier 2
        const V t88 = t49 + t15;
        const V t89 = t48 + t14;
        const V t90 = t15 - t49;
        const V t91 = t48 - t14;
        const V t92 = t17 - t88;
        const V t93 = t89 + t16;
        const V t94 = c[3] * t88;
        const V t95 = t94 + t17;
        const V t96 = c[3] * t89;
        const V t97 = t16 - t96;
        const V t98 = c[4] * t90;
        const V t99 = c[4] * t91;
        const V t100 = t95 + t99;
        const V t101 = t97 - t98;
        const V t102 = t95 - t99;
        const V t103 = t97 + t98;
        // complex block of 3, multiplier 2
        const V t104 = t43 + t9;
        const V t105 = t42 + t8;
        const V t106 = t9 - t43;
        const V t107 = t42 - t8;
        const V t108 = t23 - t104;
        const V t109 = t105 + t22;
        const V t110 = c[3] * t104;
        const V t111 = t110 + t23;
        const V t112 = c[3] * t105;
        const V t113 = t22 - t112;
        const V t114 = c[4] * t106;
        const V t115 = c[4] * t107;
        const V t116 = t111 + t115;
        const V t117 = t113 - t114;
        const V t118 = t111 - t115;
        const V t119 = t113 + t114;
        // complex block of 3, multiplier 2
        const V t120 = t37 + t3;
        const V t121 = t36 + t2;
        const V t122 = t3 - t37;
        const V t123 = t36 - t2;
        const V t124 = t29 - t120;
        const V t125 = t121 + t28;
        const V t126 = c[3] * t120;
        const V t127 = t126 + t29;
        const V t128 = c[3] * t121;
        const V t129 = t28 - t128;
        const V t130 = c[4] * t122;
        const V t131 = c[4] * t123;
        const V t132 = t127 + t131;
        const V t133 = t129 - t130;
        const V t134 = t127 - t131;
        const V t135 = t129 + t130;
        // complex block of 3, multiplier 2
        const V t136 = t1 - t31;
        const V t137 = t30 + t0;
        const V t138 = t31 + t1;
        const V t139 = t30 - t0;
        const V t140 = t136 + t35;
        const V t141 = t137 + t34;
        const V t142 = c[3] * t136;
        const V t143 = t35 - t142;
        const V t144 = c[3] * t137;
        const V t145 = t34 - t144;
        const V t146 = c[4] * t138;
        const V t147 = c[4] * t139;
        const V t148 = t143 + t147;
        const V t149 = t145 + t146;
        const V t150 = t143 - t147;
        const V t151 = t145 - t146;
        // complex block of 3, multiplier 2
        const V t152 = t7 - t25;
        const V t153 = t24 + t6;
        const V t154 = t25 + t7;
        const V t155 = t24 - t6;
        const V t156 = t152 + t41;
        const V t157 = t153 + t40;
        const V t158 = c[3] * t152;
        const V t159 = t41 - t158;
        const V t160 = c[3] * t153;
        const V t161 = t40 - t160;
        const V t162 = c[4] * t154;
        const V t163 = c[4] * t155;
        const V t164 = t159 + t163;
        const V t165 = t161 + t162;
        const V t166 = t159 - t163;
        const V t167 = t161 - t162;
        // complex block of 3, multiplier 2
        const V t168 = t13 - t19;
        const V t169 = t18 + t12;
        const V t170 = t19 + t13;
        const V t171 = t18 - t12;
        const V t172 = t168 + t47;
        const V t173 = t169 + t46;
        const V t174 = c[3] * t168;
        const V t175 = t47 - t174;
        const V t176 = c[3] * t169;
        const V t177 = t46 - t176;
        const V t178 = c[4] * t170;
        const V t179 = c[4] * t171;
        const V t180 = t175 + t179;
        const V t181 = t177 + t178;
        const V t182 = t175 - t179;
        const V t183 = t177 - t178;
        // real block of 2
        const V t184 = t61 + t109;
        const V t185 = t61 - t109;
        // real block of 2
        const V t186 = t93 + t125;
        const V t187 = t93 - t125;
        // real block of 2
        const V t188 = t173 + t77;
        const V t189 = t173 - t77;
        // real block of 2
        const V t190 = t157 + t141;
        const V t191 = t157 - t141;
        // real block of 2
        const V t192 = t184 + t188;
        const V t193 = t184 - t188;
        // real block of 2
        const V t194 = t186 + t190;
        const V t195 = t186 - t190;
        // real block of 2
        const V t196 = t192 + t194;
        const V t197 = t192 - t194;
        // skew block of 4
        const V t198 = t187 - t191;
        const V t199 = c[0] * t198;
        const V t200 = t187 + t191;
        const V t201 = c[0] * t200;
        const V t202 = t201 - t189;
        const V t203 = t185 + t199;
        const V t204 = t189 + t201;
        const V t205 = t185 - t199;
        // skew block of 8
        const V t206 = c[1] * t124;
        const V t207 = c[2] * t92;
        const V t208 = t207 - t206;
        const V t209 = c[1] * t92;
        const V t210 = c[2] * t124;
        const V t211 = t210 + t209;
        const V t212 = c[0] * t172;
        const V t213 = c[0] * t76;
        const V t214 = t213 - t212;
        const V t215 = t213 + t212;
        const V t216 = c[2] * t140;
        const V t217 = c[1] * t156;
        const V t218 = t216 - t217;
        const V t219 = c[2] * t156;
        const V t220 = c[1] * t140;
        const V t221 = t220 + t219;
        // complex block of 2
        const V t222 = t60 + t214;
        const V t223 = t108 + t215;
        const V t224 = t60 - t214;
        const V t225 = t108 - t215;
        // complex block of 2
        const V t226 = t208 + t218;
        const V t227 = t221 - t211;
        const V t228 = t208 - t218;
        const V t229 = t211 + t221;
        // complex block of 2
        const V t230 = t222 + t226;
        const V t231 = t223 + t227;
        const V t232 = t222 - t226;
        const V t233 = t223 - t227;
        // complex block of 2
        const V t234 = t224 - t229;
        const V t235 = t225 - t228;
        const V t236 = t224 + t229;
        const V t237 = t225 + t228;
        // spectrum block of 17, multiplier 3
        const V t238 = c[19] * t196;
        const V t239 = t50 - t238;
        const V t240 = c[5] * t231;
        const V t241 = c[6] * t230;
        const V t242 = t241 + t240;
        const V t243 = c[5] * t230;
        const V t244 = c[6] * t231;
        const V t245 = t243 - t244;
        const V t246 = c[7] * t204;
        const V t247 = c[8] * t203;
        const V t248 = t247 - t246;
        const V t249 = c[7] * t203;
        const V t250 = c[8] * t204;
        const V t251 = t250 + t249;
        const V t252 = c[9] * t237;
        const V t253 = c[10] * t236;
        const V t254 = t252 - t253;
        const V t255 = c[9] * t236;
        const V t256 = c[10] * t237;
        const V t257 = t256 + t255;
        const V t258 = c[11] * t195;
        const V t259 = c[12] * t193;
        const V t260 = t259 - t258;
        const V t261 = c[11] * t193;
        const V t262 = c[12] * t195;
        const V t263 = t262 + t261;
        const V t264 = c[13] * t235;
        const V t265 = c[14] * t234;
        const V t266 = t264 - t265;
        const V t267 = c[13] * t234;
        const V t268 = c[14] * t235;
        const V t269 = t268 + t267;
        const V t270 = c[15] * t202;
        const V t271 = c[16] * t205;
        const V t272 = t271 - t270;
        const V t273 = c[15] * t205;
        const V t274 = c[16] * t202;
        const V t275 = t274 + t273;
        const V t276 = c[17] * t233;
        const V t277 = c[18] * t232;
        const V t278 = t276 - t277;
        const V t279 = c[17] * t232;
        const V t280 = c[18] * t233;
        const V t281 = t280 + t279;
        const V t282 = c[20] * t197;
        // spectrum block of 2
        const V t283 = t239 - t282;
        const V t284 = t239 + t282;
        // spectrum block of 2
        const V t285 = t283 + t260;
        const V t286 = t283 - t260;
        // spectrum block of 2
        const V t287 = t284 + t263;
        const V t288 = t284 - t263;
        // complex block of 2
        const V t289 = t245 - t281;
        const V t290 = t278 - t242;
        const V t291 = t245 + t281;
        const V t292 = t242 + t278;
        // complex block of 2
        const V t293 = t269 + t257;
        const V t294 = t266 + t254;
        const V t295 = t257 - t269;
        const V t296 = t266 - t254;
        // complex block of 2
        const V t297 = t289 - t293;
        const V t298 = t290 + t294;
        const V t299 = t289 + t293;
        const V t300 = t290 - t294;
        // complex block of 2
        const V t301 = t291 + t296;
        const V t302 = t292 + t295;
        const V t303 = t291 - t296;
        const V t304 = t295 - t292;
        // spectrum block of 16
        const V t305 = c[1] * t301;
        const V t306 = c[2] * t302;
        const V t307 = t306 + t305;
        const V t308 = c[1] * t302;
        const V t309 = c[2] * t301;
        const V t310 = t309 - t308;
        const V t311 = t300 + t299;
        const V t312 = t299 - t300;
        const V t313 = c[0] * t311;
        const V t314 = c[0] * t312;
        const V t315 = c[2] * t303;
        const V t316 = c[1] * t304;
        const V t317 = t316 - t315;
        const V t318 = c[2] * t304;
        const V t319 = c[1] * t303;
        const V t320 = t319 + t318;
        // mirrored skew block of 4
        const V t321 = t248 - t272;
        const V t322 = c[0] * t321;
        const V t323 = t251 + t275;
        const V t324 = c[0] * t323;
        const V t325 = t248 + t272;
        const V t326 = t322 + t324;
        const V t327 = t275 - t251;
        const V t328 = t322 - t324;
        // spectrum block of 2
        const V t329 = t285 + t325;
        const V t330 = t285 - t325;
        // spectrum block of 2
        const V t331 = t329 + t298;
        io.out(48, t331);
        const V t332 = t329 - t298;
        io.out(3, t332);
        // spectrum block of 2
        const V t333 = t330 - t297;
        io.out(39, t333);
        const V t334 = t330 + t297;
        io.out(12, t334);
        // spectrum block of 2
        const V t335 = t287 + t326;
        const V t336 = t287 - t326;
        // spectrum block of 2
        const V t337 = t335 - t307;
        io.out(33, t337);
        const V t338 = t335 + t307;
        io.out(18, t338);
        // spectrum block of 2
        const V t339 = t336 - t310;
        io.out(30, t339);
        const V t340 = t336 + t310;
        io.out(21, t340);
        // spectrum block of 2
        const V t341 = t286 - t327;
        const V t342 = t286 + t327;
        // spectrum block of 2
        const V t343 = t341 - t314;
        io.out(45, t343);
        const V t344 = t341 + t314;
        io.out(6, t344);
        // spectrum block of 2
        const V t345 = t342 - t313;
        io.out(27, t345);
        const V t346 = t342 + t313;
        io.out(24, t346);
        // spectrum block of 2
        const V t347 = t288 - t328;
        const V t348 = t288 + t328;
        // spectrum block of 2
        const V t349 = t347 + t317;
        io.out(15, t349);
        const V t350 = t347 - t317;
        io.out(36, t350);
        // spectrum block of 2
        const V t351 = t348 - t320;
        io.out(9, t351);
        const V t352 = t348 + t320;
        io.out(42, t352);
        // spectrum block of 17, multiplier 3
        const V t353 = t50 + t196;
        io.out(0, t353);
        // real block of 2
        const V t354 = t71 + t119;
        const V t355 = t71 - t119;
        // real block of 2
        const V t356 = t103 + t135;
        const V t357 = t103 - t135;
        // real block of 2
        const V t358 = t183 + t87;
        const V t359 = t183 - t87;
        // real block of 2
        const V t360 = t167 + t151;
        const V t361 = t167 - t151;
        // real block of 2
        const V t362 = t354 + t358;
        const V t363 = t354 - t358;
        // real block of 2
        const V t364 = t356 + t360;
        const V t365 = t356 - t360;
        // real block of 2
        const V t366 = t362 + t364;
        const V t367 = t362 - t364;
        // skew block of 4
        const V t368 = t357 - t361;
        const V t369 = c[0] * t368;
        const V t370 = t357 + t361;
        const V t371 = c[0] * t370;
        const V t372 = t371 - t359;
        const V t373 = t355 + t369;
        const V t374 = t359 + t371;
        const V t375 = t355 - t369;
        // skew block of 8
        const V t376 = c[1] * t134;
        const V t377 = c[2] * t102;
        const V t378 = t377 - t376;
        const V t379 = c[1] * t102;
        const V t380 = c[2] * t134;
        const V t381 = t380 + t379;
        const V t382 = c[0] * t182;
        const V t383 = c[0] * t86;
        const V t384 = t383 - t382;
        const V t385 = t383 + t382;
        const V t386 = c[2] * t150;
        const V t387 = c[1] * t166;
        const V t388 = t386 - t387;
        const V t389 = c[2] * t166;
        const V t390 = c[1] * t150;
        const V t391 = t390 + t389;
        // complex block of 2
        const V t392 = t70 + t384;
        const V t393 = t118 + t385;
        const V t394 = t70 - t384;
        const V t395 = t118 - t385;
        // complex block of 2
        const V t396 = t378 + t388;
        const V t397 = t391 - t381;
        const V t398 = t378 - t388;
        const V t399 = t381 + t391;
        // complex block of 2
        const V t400 = t392 + t396;
        const V t401 = t393 + t397;
        const V t402 = t392 - t396;
        const V t403 = t393 - t397;
        // complex block of 2
        const V t404 = t394 - t399;
        const V t405 = t395 - t398;
        const V t406 = t394 + t399;
        const V t407 = t395 + t398;
        // spectrum block of 17, multiplier 3
        const V t408 = c[19] * t366;
        const V t409 = t55 - t408;
        const V t410 = c[5] * t401;
        const V t411 = c[6] * t400;
        const V t412 = t411 + t410;
        const V t413 = c[5] * t400;
        const V t414 = c[6] * t401;
        const V t415 = t413 - t414;
        const V t416 = c[7] * t374;
        const V t417 = c[8] * t373;
        const V t418 = t417 - t416;
        const V t419 = c[7] * t373;
        const V t420 = c[8] * t374;
        const V t421 = t420 + t419;
        const V t422 = c[9] * t407;
        const V t423 = c[10] * t406;
        const V t424 = t422 - t423;
        const V t425 = c[9] * t406;
        const V t426 = c[10] * t407;
        const V t427 = t426 + t425;
        const V t428 = c[11] * t365;
        const V t429 = c[12] * t363;
        const V t430 = t429 - t428;
        const V t431 = c[11] * t363;
        const V t432 = c[12] * t365;
        const V t433 = t432 + t431;
        const V t434 = c[13] * t405;
        const V t435 = c[14] * t404;
        const V t436 = t434 - t435;
        const V t437 = c[13] * t404;
        const V t438 = c[14] * t405;
        const V t439 = t438 + t437;
        const V t440 = c[15] * t372;
        const V t441 = c[16] * t375;
        const V t442 = t441 - t440;
        const V t443 = c[15] * t375;
        const V t444 = c[16] * t372;
        const V t445 = t444 + t443;
        const V t446 = c[17] * t403;
        const V t447 = c[18] * t402;
        const V t448 = t446 - t447;
        const V t449 = c[17] * t402;
        const V t450 = c[18] * t403;
        const V t451 = t450 + t449;
        const V t452 = c[20] * t367;
        // spectrum block of 2
        const V t453 = t409 - t452;
        const V t454 = t409 + t452;
        // spectrum block of 2
        const V t455 = t453 + t430;
        const V t456 = t453 - t430;
        // spectrum block of 2
        const V t457 = t454 + t433;
        const V t458 = t454 - t433;
        // complex block of 2
        const V t459 = t415 - t451;
        const V t460 = t448 - t412;
        const V t461 = t415 + t451;
        const V t462 = t412 + t448;
        // complex block of 2
        const V t463 = t439 + t427;
        const V t464 = t436 + t424;
        const V t465 = t427 - t439;
        const V t466 = t436 - t424;
        // complex block of 2
        const V t467 = t459 - t463;
        const V t468 = t460 + t464;
        const V t469 = t459 + t463;
        const V t470 = t460 - t464;
        // complex block of 2
        const V t471 = t461 + t466;
        const V t472 = t462 + t465;
        const V t473 = t461 - t466;
        const V t474 = t465 - t462;
        // spectrum block of 16
        const V t475 = c[1] * t471;
        const V t476 = c[2] * t472;
        const V t477 = t476 + t475;
        const V t478 = c[1] * t472;
        const V t479 = c[2] * t471;
        const V t480 = t479 - t478;
        const V t481 = t470 + t469;
        const V t482 = t469 - t470;
        const V t483 = c[0] * t481;
        const V t484 = c[0] * t482;
        const V t485 = c[2] * t473;
        const V t486 = c[1] * t474;
        const V t487 = t486 - t485;
        const V t488 = c[2] * t474;
        const V t489 = c[1] * t473;
        const V t490 = t489 + t488;
        // mirrored skew block of 4
        const V t491 = t418 - t442;
        const V t492 = c[0] * t491;
        const V t493 = t421 + t445;
        const V t494 = c[0] * t493;
        const V t495 = t418 + t442;
        const V t496 = t492 + t494;
        const V t497 = t445 - t421;
        const V t498 = t492 - t494;
        // spectrum block of 2
        const V t499 = t455 + t495;
        const V t500 = t455 - t495;
        // spectrum block of 2
        const V t501 = t499 + t468;
        io.out(31, t501);
        const V t502 = t499 - t468;
        io.out(37, t502);
        // spectrum block of 2
        const V t503 = t500 - t467;
        io.out(22, t503);
        const V t504 = t500 + t467;
        io.out(46, t504);
        // spectrum block of 2
        const V t505 = t457 + t496;
        const V t506 = t457 - t496;
        // spectrum block of 2
        const V t507 = t505 - t477;
        io.out(16, t507);
        const V t508 = t505 + t477;
        io.out(1, t508);
        // spectrum block of 2
        const V t509 = t506 - t480;
        io.out(13, t509);
        const V t510 = t506 + t480;
        io.out(4, t510);
        // spectrum block of 2
        const V t511 = t456 - t497;
        const V t512 = t456 + t497;
        // spectrum block of 2
        const V t513 = t511 - t484;
        io.out(28, t513);
        const V t514 = t511 + t484;
        io.out(40, t514);
        // spectrum block of 2
        const V t515 = t512 - t483;
        io.out(10, t515);
        const V t516 = t512 + t483;
        io.out(7, t516);
        // spectrum block of 2
        const V t517 = t458 - t498;
        const V t518 = t458 + t498;
        // spectrum block of 2
        const V t519 = t517 + t487;
        io.out(49, t519);
        const V t520 = t517 - t487;
        io.out(19, t520);
        // spectrum block of 2
        const V t521 = t518 - t490;
        io.out(43, t521);
        const V t522 = t518 + t490;
        io.out(25, t522);
        // spectrum block of 17, multiplier 3
        const V t523 = t55 + t366;
        io.out(34, t523);
        // real block of 2
        const V t524 = t69 + t117;
        const V t525 = t69 - t117;
        // real block of 2
        const V t526 = t101 + t133;
        const V t527 = t101 - t133;
        // real block of 2
        const V t528 = t181 + t85;
        const V t529 = t181 - t85;
        // real block of 2
        const V t530 = t165 + t149;
        const V t531 = t165 - t149;
        // real block of 2
        const V t532 = t524 + t528;
        const V t533 = t524 - t528;
        // real block of 2
        const V t534 = t526 + t530;
        const V t535 = t526 - t530;
        // real block of 2
        const V t536 = t532 + t534;
        const V t537 = t532 - t534;
        // skew block of 4
        const V t538 = t527 - t531;
        const V t539 = c[0] * t538;
        const V t540 = t527 + t531;
        const V t541 = c[0] * t540;
        const V t542 = t541 - t529;
        const V t543 = t525 + t539;
        const V t544 = t529 + t541;
        const V t545 = t525 - t539;
        // skew block of 8
        const V t546 = c[1] * t132;
        const V t547 = c[2] * t100;
        const V t548 = t547 - t546;
        const V t549 = c[1] * t100;
        const V t550 = c[2] * t132;
        const V t551 = t550 + t549;
        const V t552 = c[0] * t180;
        const V t553 = c[0] * t84;
        const V t554 = t553 - t552;
        const V t555 = t553 + t552;
        const V t556 = c[2] * t148;
        const V t557 = c[1] * t164;
        const V t558 = t556 - t557;
        const V t559 = c[2] * t164;
        const V t560 = c[1] * t148;
        const V t561 = t560 + t559;
        // complex block of 2
        const V t562 = t68 + t554;
        const V t563 = t116 + t555;
        const V t564 = t68 - t554;
        const V t565 = t116 - t555;
        // complex block of 2
        const V t566 = t548 + t558;
        const V t567 = t561 - t551;
        const V t568 = t548 - t558;
        const V t569 = t551 + t561;
        // complex block of 2
        const V t570 = t562 + t566;
        const V t571 = t563 + t567;
        const V t572 = t562 - t566;
        const V t573 = t563 - t567;
        // complex block of 2
        const V t574 = t564 - t569;
        const V t575 = t565 - t568;
        const V t576 = t564 + t569;
        const V t577 = t565 + t568;
        // spectrum block of 17, multiplier 3
        const V t578 = c[19] * t536;
        const V t579 = t54 - t578;
        const V t580 = c[5] * t571;
        const V t581 = c[6] * t570;
        const V t582 = t581 + t580;
        const V t583 = c[5] * t570;
        const V t584 = c[6] * t571;
        const V t585 = t583 - t584;
        const V t586 = c[7] * t544;
        const V t587 = c[8] * t543;
        const V t588 = t587 - t586;
        const V t589 = c[7] * t543;
        const V t590 = c[8] * t544;
        const V t591 = t590 + t589;
        const V t592 = c[9] * t577;
        const V t593 = c[10] * t576;
        const V t594 = t592 - t593;
        const V t595 = c[9] * t576;
        const V t596 = c[10] * t577;
        const V t597 = t596 + t595;
        const V t598 = c[11] * t535;
        const V t599 = c[12] * t533;
        const V t600 = t599 - t598;
        const V t601 = c[11] * t533;
        const V t602 = c[12] * t535;
        const V t603 = t602 + t601;
        const V t604 = c[13] * t575;
        const V t605 = c[14] * t574;
        const V t606 = t604 - t605;
        const V t607 = c[13] * t574;
        const V t608 = c[14] * t575;
        const V t609 = t608 + t607;
        const V t610 = c[15] * t542;
        const V t611 = c[16] * t545;
        const V t612 = t611 - t610;
        const V t613 = c[15] * t545;
        const V t614 = c[16] * t542;
        const V t615 = t614 + t613;
        const V t616 = c[17] * t573;
        const V t617 = c[18] * t572;
        const V t618 = t616 - t617;
        const V t619 = c[17] * t572;
        const V t620 = c[18] * t573;
        const V t621 = t620 + t619;
        const V t622 = c[20] * t537;
        // spectrum block of 2
        const V t623 = t579 - t622;
        const V t624 = t579 + t622;
        // spectrum block of 2
        const V t625 = t623 + t600;
        const V t626 = t623 - t600;
        // spectrum block of 2
        const V t627 = t624 + t603;
        const V t628 = t624 - t603;
        // complex block of 2
        const V t629 = t585 - t621;
        const V t630 = t618 - t582;
        const V t631 = t585 + t621;
        const V t632 = t582 + t618;
        // complex block of 2
        const V t633 = t609 + t597;
        const V t634 = t606 + t594;
        const V t635 = t597 - t609;
        const V t636 = t606 - t594;
        // complex block of 2
        const V t637 = t629 - t633;
        const V t638 = t630 + t634;
        const V t639 = t629 + t633;
        const V t640 = t630 - t634;
        // complex block of 2
        const V t641 = t631 + t636;
        const V t642 = t632 + t635;
        const V t643 = t631 - t636;
        const V t644 = t635 - t632;
        // spectrum block of 16
        const V t645 = c[1] * t641;
        const V t646 = c[2] * t642;
        const V t647 = t646 + t645;
        const V t648 = c[1] * t642;
        const V t649 = c[2] * t641;
        const V t650 = t649 - t648;
        const V t651 = t640 + t639;
        const V t652 = t639 - t640;
        const V t653 = c[0] * t651;
        const V t654 = c[0] * t652;
        const V t655 = c[2] * t643;
        const V t656 = c[1] * t644;
        const V t657 = t656 - t655;
        const V t658 = c[2] * t644;
        const V t659 = c[1] * t643;
        const V t660 = t659 + t658;
        // mirrored skew block of 4
        const V t661 = t588 - t612;
        const V t662 = c[0] * t661;
        const V t663 = t591 + t615;
        const V t664 = c[0] * t663;
        const V t665 = t588 + t612;
        const V t666 = t662 + t664;
        const V t667 = t615 - t591;
        const V t668 = t662 - t664;
        // spectrum block of 2
        const V t669 = t625 + t665;
        const V t670 = t625 - t665;
        // spectrum block of 2
        const V t671 = t669 + t638;
        io.out(14, t671);
        const V t672 = t669 - t638;
        io.out(20, t672);
        // spectrum block of 2
        const V t673 = t670 - t637;
        io.out(5, t673);
        const V t674 = t670 + t637;
        io.out(29, t674);
        // spectrum block of 2
        const V t675 = t627 + t666;
        const V t676 = t627 - t666;
        // spectrum block of 2
        const V t677 = t675 - t647;
        io.out(50, t677);
        const V t678 = t675 + t647;
        io.out(35, t678);
        // spectrum block of 2
        const V t679 = t676 - t650;
        io.out(47, t679);
        const V t680 = t676 + t650;
        io.out(38, t680);
        // spectrum block of 2
        const V t681 = t626 - t667;
        const V t682 = t626 + t667;
        // spectrum block of 2
        const V t683 = t681 - t654;
        io.out(11, t683);
        const V t684 = t681 + t654;
        io.out(23, t684);
        // spectrum block of 2
        const V t685 = t682 - t653;
        io.out(44, t685);
        const V t686 = t682 + t653;
        io.out(41, t686);
        // spectrum block of 2
        const V t687 = t628 - t668;
        const V t688 = t628 + t668;
        // spectrum block of 2
        const V t689 = t687 + t657;
        io.out(32, t689);
        const V t690 = t687 - t657;
        io.out(2, t690);
        // spectrum block of 2
        const V t691 = t688 - t660;
        io.out(26, t691);
        const V t692 = t688 + t660;
        io.out(8, t692);
        // spectrum block of 17, multiplier 3
        const V t693 = t54 + t536;
        io.out(17, t693);
    }
};

}  // namespace zulg
