// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 44.
// Hartley transform of 44 points, form I.
// 216 additions, 184 subtractions, 200 multiplications (244 with `scale`); 14 constants; 48 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<44> {
    static constexpr int steps = 644;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5450828424811972,  // c[4]: P[1] of 11
        0.3780009190896476,  // c[5]: -Q[1] of 11
        0.6355539395974166,  // c[6]: -Q[2] of 11
        0.18992416871531467,  // c[7]: -P[2] of 11
        0.6617220446385197,  // c[8]: P[3] of 11
        0.046086176229070706,  // c[9]: -Q[3] of 11
        0.5539145271232301,  // c[10]: Q[4] of 11
        0.3649365652299704,  // c[11]: -P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x43 = io.in(43);
        const V t0 = x1 + x43;
        const V t1 = x1 - x43;
        const V x2 = io.in(2);
        const V x42 = io.in(42);
        const V t2 = x2 + x42;
        const V t3 = x2 - x42;
        const V x3 = io.in(3);
        const V x41 = io.in(41);
        const V t4 = x3 + x41;
        const V t5 = x3 - x41;
        const V x4 = io.in(4);
        const V x40 = io.in(40);
        const V t6 = x4 + x40;
        const V t7 = x4 - x40;
        const V x5 = io.in(5);
        const V x39 = io.in(39);
        const V t8 = x5 + x39;
        const V t9 = x5 - x39;
        const V x6 = io.in(6);
        const V x38 = io.in(38);
        const V t10 = x6 + x38;
        const V t11 = x6 - x38;
        const V x7 = io.in(7);
        const V x37 = io.in(37);
        const V t12 = x7 + x37;
        const V t13 = x7 - x37;
        const V x8 = io.in(8);
        const V x36 = io.in(36);
        const V t14 = x8 + x36;
        const V t15 = x8 - x36;
        const V x9 = io.in(9);
        const V x35 = io.in(35);
        const V t16 = x9 + x35;
        const V t17 = x9 - x35;
        const V x10 = io.in(10);
        const V x34 = io.in(34);
        const V t18 = x10 + x34;
        const V t19 = x10 - x34;
        const V x11 = io.in(11);
        const V x33 = io.in(33);
        const V t20 = x11 + x33;
        const V t21 = x11 - x33;
        const V x12 = io.in(12);
        const V x32 = io.in(32);
        const V t22 = x12 + x32;
        const V t23 = x12 - x32;
        const V x13 = io.in(13);
        const V x31 = io.in(31);
        const V t24 = x13 + x31;
        const V t25 = x13 - x31;
        const V x14 = io.in(14);
        const V x30 = io.in(30);
        const V t26 = x14 + x30;
        const V t27 = x14 - x30;
        const V x15 = io.in(15);
        const V x29 = io.in(29);
        const V t28 = x15 + x29;
        const V t29 = x15 - x29;
        const V x16 = io.in(16);
        const V x28 = io.in(28);
        const V t30 = x16 + x28;
        const V t31 = x16 - x28;
        const V x17 = io.in(17);
        const V x27 = io.in(27);
        const V t32 = x17 + x27;
        const V t33 = x17 - x27;
        const V x18 = io.in(18);
        const V x26 = io.in(26);
        const V t34 = x18 + x26;
        const V t35 = x18 - x26;
        const V x19 = io.in(19);
        const V x25 = io.in(25);
        const V t36 = x19 + x25;
        const V t37 = x19 - x25;
        const V x20 = io.in(20);
        const V x24 = io.in(24);
        const V t38 = x20 + x24;
        const V t39 = x20 - x24;
        const V x21 = io.in(21);
        const V x23 = io.in(23);
        const V t40 = x21 + x23;
        const V t41 = x21 - x23;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x22 = io.in(22);
        const V t42 = x0 + x22;
        const V t43 = x0 - x22;
        // spectrum block of 2
        const V t44 = t42 + t20;
        const V t45 = t42 - t20;
        // spectrum block of 2
        const V t46 = t43 + t21;
        const V t47 = t43 - t21;
        // complex block of 2
        const V t48 = t7 - t35;
        const V t49 = t6 + t34;
        const V t50 = t7 + t35;
        const V t51 = t6 - t34;
        // complex block of 2
        const V t52 = t29 - t13;
        const V t53 = t28 + t12;
        const V t54 = t29 + t13;
        const V t55 = t28 - t12;
        // complex block of 2
        const V t56 = t48 + t52;
        const V t57 = t49 + t53;
        const V t58 = t48 - t52;
        const V t59 = t49 - t53;
        // complex block of 2
        const V t60 = t50 - t55;
        const V t61 = t51 + t54;
        const V t62 = t50 + t55;
        const V t63 = t51 - t54;
        // complex block of 2
        const V t64 = t15 - t27;
        const V t65 = t14 + t26;
        const V t66 = t15 + t27;
        const V t67 = t14 - t26;
        // complex block of 2
        const V t68 = t37 - t5;
        const V t69 = t36 + t4;
        const V t70 = t37 + t5;
        const V t71 = t36 - t4;
        // complex block of 2
        const V t72 = t64 + t68;
        const V t73 = t65 + t69;
        const V t74 = t64 - t68;
        const V t75 = t65 - t69;
        // complex block of 2
        const V t76 = t66 - t71;
        const V t77 = t67 + t70;
        const V t78 = t66 + t71;
        const V t79 = t67 - t70;
        // complex block of 2
        const V t80 = t23 - t19;
        const V t81 = t22 + t18;
        const V t82 = t23 + t19;
        const V t83 = t22 - t18;
        // complex block of 2
        const V t84 = t1 - t41;
        const V t85 = t40 + t0;
        const V t86 = t41 + t1;
        const V t87 = t40 - t0;
        // complex block of 2
        const V t88 = t80 + t84;
        const V t89 = t81 + t85;
        const V t90 = t80 - t84;
        const V t91 = t81 - t85;
        // complex block of 2
        const V t92 = t82 - t87;
        const V t93 = t83 - t86;
        const V t94 = t82 + t87;
        const V t95 = t83 + t86;
        // complex block of 2
        const V t96 = t31 - t11;
        const V t97 = t30 + t10;
        const V t98 = t31 + t11;
        const V t99 = t30 - t10;
        // complex block of 2
        const V t100 = t9 - t33;
        const V t101 = t32 + t8;
        const V t102 = t33 + t9;
        const V t103 = t32 - t8;
        // complex block of 2
        const V t104 = t96 + t100;
        const V t105 = t97 + t101;
        const V t106 = t96 - t100;
        const V t107 = t97 - t101;
        // complex block of 2
        const V t108 = t98 - t103;
        const V t109 = t99 - t102;
        const V t110 = t98 + t103;
        const V t111 = t99 + t102;
        // complex block of 2
        const V t112 = t39 - t3;
        const V t113 = t38 + t2;
        const V t114 = t39 + t3;
        const V t115 = t38 - t2;
        // complex block of 2
        const V t116 = t17 - t25;
        const V t117 = t24 + t16;
        const V t118 = t25 + t17;
        const V t119 = t24 - t16;
        // complex block of 2
        const V t120 = t112 + t116;
        const V t121 = t113 + t117;
        const V t122 = t112 - t116;
        const V t123 = t113 - t117;
        // complex block of 2
        const V t124 = t114 - t119;
        const V t125 = t115 - t118;
        const V t126 = t114 + t119;
        const V t127 = t115 + t118;
        // real block of 5
        const V t128 = t73 + t121;
        const V t129 = t73 - t121;
        const V t130 = t89 + t105;
        const V t131 = t89 - t105;
        const V t132 = t128 + t130;
        const V t133 = t132 + t57;
        const V t134 = c[0] * t128;
        const V t135 = c[1] * t130;
        const V t136 = t134 - t135;
        const V t137 = t136 + t57;
        const V t138 = c[2] * t129;
        const V t139 = c[3] * t131;
        const V t140 = t139 - t138;
        const V t141 = c[1] * t128;
        const V t142 = t57 - t141;
        const V t143 = c[0] * t130;
        const V t144 = t142 + t143;
        const V t145 = c[3] * t129;
        const V t146 = c[2] * t131;
        const V t147 = t145 + t146;
        // real block of 5
        const V t148 = t120 - t72;
        const V t149 = t72 + t120;
        const V t150 = t88 + t104;
        const V t151 = t88 - t104;
        const V t152 = t148 + t150;
        const V t153 = t152 + t56;
        const V t154 = c[0] * t148;
        const V t155 = c[1] * t150;
        const V t156 = t154 - t155;
        const V t157 = t156 + t56;
        const V t158 = c[2] * t149;
        const V t159 = c[3] * t151;
        const V t160 = t158 + t159;
        const V t161 = c[1] * t148;
        const V t162 = t56 - t161;
        const V t163 = c[0] * t150;
        const V t164 = t162 + t163;
        const V t165 = c[3] * t149;
        const V t166 = c[2] * t151;
        const V t167 = t165 - t166;
        // spectrum block of 11, multiplier 4
        const V t168 = c[12] * t133;
        const V t169 = t44 - t168;
        const V t170 = c[4] * t167;
        const V t171 = c[5] * t164;
        const V t172 = t170 - t171;
        const V t173 = c[4] * t164;
        const V t174 = c[5] * t167;
        const V t175 = t174 + t173;
        const V t176 = c[6] * t140;
        const V t177 = c[7] * t137;
        const V t178 = t176 - t177;
        const V t179 = c[6] * t137;
        const V t180 = c[7] * t140;
        const V t181 = t180 + t179;
        const V t182 = c[8] * t160;
        const V t183 = c[9] * t157;
        const V t184 = t182 - t183;
        const V t185 = c[8] * t157;
        const V t186 = c[9] * t160;
        const V t187 = t186 + t185;
        const V t188 = c[10] * t147;
        const V t189 = c[11] * t144;
        const V t190 = t188 - t189;
        const V t191 = c[10] * t144;
        const V t192 = c[11] * t147;
        const V t193 = t192 + t191;
        const V t194 = c[13] * t153;
        // spectrum block of 2
        const V t195 = t169 - t194;
        const V t196 = t169 + t194;
        // complex block of 2
        const V t197 = t181 + t187;
        const V t198 = t178 + t184;
        const V t199 = t187 - t181;
        const V t200 = t178 - t184;
        // complex block of 2
        const V t201 = t193 - t175;
        const V t202 = t190 + t172;
        const V t203 = t193 + t175;
        const V t204 = t190 - t172;
        // spectrum block of 5, multiplier 2
        const V t205 = t198 + t202;
        const V t206 = t205 + t195;
        io.out(40, t206);
        const V t207 = c[0] * t198;
        const V t208 = c[1] * t202;
        const V t209 = t207 - t208;
        const V t210 = t209 + t195;
        const V t211 = c[2] * t197;
        const V t212 = c[3] * t201;
        const V t213 = t212 - t211;
        const V t214 = t210 - t213;
        io.out(24, t214);
        const V t215 = t210 + t213;
        io.out(8, t215);
        const V t216 = c[1] * t198;
        const V t217 = t195 - t216;
        const V t218 = c[0] * t202;
        const V t219 = t217 + t218;
        const V t220 = c[3] * t197;
        const V t221 = c[2] * t201;
        const V t222 = t220 + t221;
        const V t223 = t219 + t222;
        io.out(32, t223);
        const V t224 = t219 - t222;
        io.out(28, t224);
        // spectrum block of 5, multiplier 2
        const V t225 = t200 + t204;
        const V t226 = t225 + t196;
        io.out(4, t226);
        const V t227 = c[0] * t200;
        const V t228 = c[1] * t204;
        const V t229 = t227 - t228;
        const V t230 = t229 + t196;
        const V t231 = c[2] * t199;
        const V t232 = c[3] * t203;
        const V t233 = t231 + t232;
        const V t234 = t230 - t233;
        io.out(20, t234);
        const V t235 = t230 + t233;
        io.out(36, t235);
        const V t236 = c[1] * t200;
        const V t237 = t196 - t236;
        const V t238 = c[0] * t204;
        const V t239 = t237 + t238;
        const V t240 = c[3] * t199;
        const V t241 = c[2] * t203;
        const V t242 = t240 - t241;
        const V t243 = t239 - t242;
        io.out(12, t243);
        const V t244 = t239 + t242;
        io.out(16, t244);
        // spectrum block of 11, multiplier 4
        const V t245 = t44 + t133;
        io.out(0, t245);
        // real block of 5
        const V t246 = t77 + t125;
        const V t247 = t77 - t125;
        const V t248 = t93 + t109;
        const V t249 = t93 - t109;
        const V t250 = t246 + t248;
        const V t251 = t250 + t61;
        const V t252 = c[0] * t246;
        const V t253 = c[1] * t248;
        const V t254 = t252 - t253;
        const V t255 = t254 + t61;
        const V t256 = c[2] * t247;
        const V t257 = c[3] * t249;
        const V t258 = t257 - t256;
        const V t259 = c[1] * t246;
        const V t260 = t61 - t259;
        const V t261 = c[0] * t248;
        const V t262 = t260 + t261;
        const V t263 = c[3] * t247;
        const V t264 = c[2] * t249;
        const V t265 = t263 + t264;
        // real block of 5
        const V t266 = t124 - t76;
        const V t267 = t76 + t124;
        const V t268 = t92 + t108;
        const V t269 = t92 - t108;
        const V t270 = t266 + t268;
        const V t271 = t270 + t60;
        const V t272 = c[0] * t266;
        const V t273 = c[1] * t268;
        const V t274 = t272 - t273;
        const V t275 = t274 + t60;
        const V t276 = c[2] * t267;
        const V t277 = c[3] * t269;
        const V t278 = t276 + t277;
        const V t279 = c[1] * t266;
        const V t280 = t60 - t279;
        const V t281 = c[0] * t268;
        const V t282 = t280 + t281;
        const V t283 = c[3] * t267;
        const V t284 = c[2] * t269;
        const V t285 = t283 - t284;
        // spectrum block of 11, multiplier 4
        const V t286 = c[12] * t251;
        const V t287 = t46 - t286;
        const V t288 = c[4] * t285;
        const V t289 = c[5] * t282;
        const V t290 = t288 - t289;
        const V t291 = c[4] * t282;
        const V t292 = c[5] * t285;
        const V t293 = t292 + t291;
        const V t294 = c[6] * t258;
        const V t295 = c[7] * t255;
        const V t296 = t294 - t295;
        const V t297 = c[6] * t255;
        const V t298 = c[7] * t258;
        const V t299 = t298 + t297;
        const V t300 = c[8] * t278;
        const V t301 = c[9] * t275;
        const V t302 = t300 - t301;
        const V t303 = c[8] * t275;
        const V t304 = c[9] * t278;
        const V t305 = t304 + t303;
        const V t306 = c[10] * t265;
        const V t307 = c[11] * t262;
        const V t308 = t306 - t307;
        const V t309 = c[10] * t262;
        const V t310 = c[11] * t265;
        const V t311 = t310 + t309;
        const V t312 = c[13] * t271;
        // spectrum block of 2
        const V t313 = t287 - t312;
        const V t314 = t287 + t312;
        // complex block of 2
        const V t315 = t299 + t305;
        const V t316 = t296 + t302;
        const V t317 = t305 - t299;
        const V t318 = t296 - t302;
        // complex block of 2
        const V t319 = t311 - t293;
        const V t320 = t308 + t290;
        const V t321 = t311 + t293;
        const V t322 = t308 - t290;
        // spectrum block of 5, multiplier 2
        const V t323 = t316 + t320;
        const V t324 = t323 + t313;
        io.out(29, t324);
        const V t325 = c[0] * t316;
        const V t326 = c[1] * t320;
        const V t327 = t325 - t326;
        const V t328 = t327 + t313;
        const V t329 = c[2] * t315;
        const V t330 = c[3] * t319;
        const V t331 = t330 - t329;
        const V t332 = t328 - t331;
        io.out(13, t332);
        const V t333 = t328 + t331;
        io.out(41, t333);
        const V t334 = c[1] * t316;
        const V t335 = t313 - t334;
        const V t336 = c[0] * t320;
        const V t337 = t335 + t336;
        const V t338 = c[3] * t315;
        const V t339 = c[2] * t319;
        const V t340 = t338 + t339;
        const V t341 = t337 + t340;
        io.out(21, t341);
        const V t342 = t337 - t340;
        io.out(17, t342);
        // spectrum block of 5, multiplier 2
        const V t343 = t318 + t322;
        const V t344 = t343 + t314;
        io.out(37, t344);
        const V t345 = c[0] * t318;
        const V t346 = c[1] * t322;
        const V t347 = t345 - t346;
        const V t348 = t347 + t314;
        const V t349 = c[2] * t317;
        const V t350 = c[3] * t321;
        const V t351 = t349 + t350;
        const V t352 = t348 - t351;
        io.out(9, t352);
        const V t353 = t348 + t351;
        io.out(25, t353);
        const V t354 = c[1] * t318;
        const V t355 = t314 - t354;
        const V t356 = c[0] * t322;
        const V t357 = t355 + t356;
        const V t358 = c[3] * t317;
        const V t359 = c[2] * t321;
        const V t360 = t358 - t359;
        const V t361 = t357 - t360;
        io.out(1, t361);
        const V t362 = t357 + t360;
        io.out(5, t362);
        // spectrum block of 11, multiplier 4
        const V t363 = t46 + t251;
        io.out(33, t363);
        // real block of 5
        const V t364 = t75 + t123;
        const V t365 = t75 - t123;
        const V t366 = t91 + t107;
        const V t367 = t91 - t107;
        const V t368 = t364 + t366;
        const V t369 = t368 + t59;
        const V t370 = c[0] * t364;
        const V t371 = c[1] * t366;
        const V t372 = t370 - t371;
        const V t373 = t372 + t59;
        const V t374 = c[2] * t365;
        const V t375 = c[3] * t367;
        const V t376 = t375 - t374;
        const V t377 = c[1] * t364;
        const V t378 = t59 - t377;
        const V t379 = c[0] * t366;
        const V t380 = t378 + t379;
        const V t381 = c[3] * t365;
        const V t382 = c[2] * t367;
        const V t383 = t381 + t382;
        // real block of 5
        const V t384 = t122 - t74;
        const V t385 = t74 + t122;
        const V t386 = t90 + t106;
        const V t387 = t90 - t106;
        const V t388 = t384 + t386;
        const V t389 = t388 + t58;
        const V t390 = c[0] * t384;
        const V t391 = c[1] * t386;
        const V t392 = t390 - t391;
        const V t393 = t392 + t58;
        const V t394 = c[2] * t385;
        const V t395 = c[3] * t387;
        const V t396 = t394 + t395;
        const V t397 = c[1] * t384;
        const V t398 = t58 - t397;
        const V t399 = c[0] * t386;
        const V t400 = t398 + t399;
        const V t401 = c[3] * t385;
        const V t402 = c[2] * t387;
        const V t403 = t401 - t402;
        // spectrum block of 11, multiplier 4
        const V t404 = c[12] * t369;
        const V t405 = t45 - t404;
        const V t406 = c[4] * t403;
        const V t407 = c[5] * t400;
        const V t408 = t406 - t407;
        const V t409 = c[4] * t400;
        const V t410 = c[5] * t403;
        const V t411 = t410 + t409;
        const V t412 = c[6] * t376;
        const V t413 = c[7] * t373;
        const V t414 = t412 - t413;
        const V t415 = c[6] * t373;
        const V t416 = c[7] * t376;
        const V t417 = t416 + t415;
        const V t418 = c[8] * t396;
        const V t419 = c[9] * t393;
        const V t420 = t418 - t419;
        const V t421 = c[8] * t393;
        const V t422 = c[9] * t396;
        const V t423 = t422 + t421;
        const V t424 = c[10] * t383;
        const V t425 = c[11] * t380;
        const V t426 = t424 - t425;
        const V t427 = c[10] * t380;
        const V t428 = c[11] * t383;
        const V t429 = t428 + t427;
        const V t430 = c[13] * t389;
        // spectrum block of 2
        const V t431 = t405 - t430;
        const V t432 = t405 + t430;
        // complex block of 2
        const V t433 = t417 + t423;
        const V t434 = t414 + t420;
        const V t435 = t423 - t417;
        const V t436 = t414 - t420;
        // complex block of 2
        const V t437 = t429 - t411;
        const V t438 = t426 + t408;
        const V t439 = t429 + t411;
        const V t440 = t426 - t408;
        // spectrum block of 5, multiplier 2
        const V t441 = t434 + t438;
        const V t442 = t441 + t431;
        io.out(18, t442);
        const V t443 = c[0] * t434;
        const V t444 = c[1] * t438;
        const V t445 = t443 - t444;
        const V t446 = t445 + t431;
        const V t447 = c[2] * t433;
        const V t448 = c[3] * t437;
        const V t449 = t448 - t447;
        const V t450 = t446 - t449;
        io.out(2, t450);
        const V t451 = t446 + t449;
        io.out(30, t451);
        const V t452 = c[1] * t434;
        const V t453 = t431 - t452;
        const V t454 = c[0] * t438;
        const V t455 = t453 + t454;
        const V t456 = c[3] * t433;
        const V t457 = c[2] * t437;
        const V t458 = t456 + t457;
        const V t459 = t455 + t458;
        io.out(10, t459);
        const V t460 = t455 - t458;
        io.out(6, t460);
        // spectrum block of 5, multiplier 2
        const V t461 = t436 + t440;
        const V t462 = t461 + t432;
        io.out(26, t462);
        const V t463 = c[0] * t436;
        const V t464 = c[1] * t440;
        const V t465 = t463 - t464;
        const V t466 = t465 + t432;
        const V t467 = c[2] * t435;
        const V t468 = c[3] * t439;
        const V t469 = t467 + t468;
        const V t470 = t466 - t469;
        io.out(42, t470);
        const V t471 = t466 + t469;
        io.out(14, t471);
        const V t472 = c[1] * t436;
        const V t473 = t432 - t472;
        const V t474 = c[0] * t440;
        const V t475 = t473 + t474;
        const V t476 = c[3] * t435;
        const V t477 = c[2] * t439;
        const V t478 = t476 - t477;
        const V t479 = t475 - t478;
        io.out(34, t479);
        const V t480 = t475 + t478;
        io.out(38, t480);
        // spectrum block of 11, multiplier 4
        const V t481 = t45 + t369;
        io.out(22, t481);
        // real block of 5
        const V t482 = t79 + t127;
        const V t483 = t79 - t127;
        const V t484 = t95 + t111;
        const V t485 = t95 - t111;
        const V t486 = t482 + t484;
        const V t487 = t486 + t63;
        const V t488 = c[0] * t482;
        const V t489 = c[1] * t484;
        const V t490 = t488 - t489;
        const V t491 = t490 + t63;
        const V t492 = c[2] * t483;
        const V t493 = c[3] * t485;
        const V t494 = t493 - t492;
        const V t495 = c[1] * t482;
        const V t496 = t63 - t495;
        const V t497 = c[0] * t484;
        const V t498 = t496 + t497;
        const V t499 = c[3] * t483;
        const V t500 = c[2] * t485;
        const V t501 = t499 + t500;
        // real block of 5
        const V t502 = t126 - t78;
        const V t503 = t78 + t126;
        const V t504 = t94 + t110;
        const V t505 = t94 - t110;
        const V t506 = t502 + t504;
        const V t507 = t506 + t62;
        const V t508 = c[0] * t502;
        const V t509 = c[1] * t504;
        const V t510 = t508 - t509;
        const V t511 = t510 + t62;
        const V t512 = c[2] * t503;
        const V t513 = c[3] * t505;
        const V t514 = t512 + t513;
        const V t515 = c[1] * t502;
        const V t516 = t62 - t515;
        const V t517 = c[0] * t504;
        const V t518 = t516 + t517;
        const V t519 = c[3] * t503;
        const V t520 = c[2] * t505;
        const V t521 = t519 - t520;
        // spectrum block of 11, multiplier 4
        const V t522 = c[12] * t487;
        const V t523 = t47 - t522;
        const V t524 = c[4] * t521;
        const V t525 = c[5] * t518;
        const V t526 = t524 - t525;
        const V t527 = c[4] * t518;
        const V t528 = c[5] * t521;
        const V t529 = t528 + t527;
        const V t530 = c[6] * t494;
        const V t531 = c[7] * t491;
        const V t532 = t530 - t531;
        const V t533 = c[6] * t491;
        const V t534 = c[7] * t494;
        const V t535 = t534 + t533;
        const V t536 = c[8] * t514;
        const V t537 = c[9] * t511;
        const V t538 = t536 - t537;
        const V t539 = c[8] * t511;
        const V t540 = c[9] * t514;
        const V t541 = t540 + t539;
        const V t542 = c[10] * t501;
        const V t543 = c[11] * t498;
        const V t544 = t542 - t543;
        const V t545 = c[10] * t498;
        const V t546 = c[11] * t501;
        const V t547 = t546 + t545;
        const V t548 = c[13] * t507;
        // spectrum block of 2
        const V t549 = t523 - t548;
        const V t550 = t523 + t548;
        // complex block of 2
        const V t551 = t535 + t541;
        const V t552 = t532 + t538;
        const V t553 = t541 - t535;
        const V t554 = t532 - t538;
        // complex block of 2
        const V t555 = t547 - t529;
        const V t556 = t544 + t526;
        const V t557 = t547 + t529;
        const V t558 = t544 - t526;
        // spectrum block of 5, multiplier 2
        const V t559 = t552 + t556;
        const V t560 = t559 + t549;
        io.out(7, t560);
        const V t561 = c[0] * t552;
        const V t562 = c[1] * t556;
        const V t563 = t561 - t562;
        const V t564 = t563 + t549;
        const V t565 = c[2] * t551;
        const V t566 = c[3] * t555;
        const V t567 = t566 - t565;
        const V t568 = t564 - t567;
        io.out(35, t568);
        const V t569 = t564 + t567;
        io.out(19, t569);
        const V t570 = c[1] * t552;
        const V t571 = t549 - t570;
        const V t572 = c[0] * t556;
        const V t573 = t571 + t572;
        const V t574 = c[3] * t551;
        const V t575 = c[2] * t555;
        const V t576 = t574 + t575;
        const V t577 = t573 + t576;
        io.out(43, t577);
        const V t578 = t573 - t576;
        io.out(39, t578);
        // spectrum block of 5, multiplier 2
        const V t579 = t554 + t558;
        const V t580 = t579 + t550;
        io.out(15, t580);
        const V t581 = c[0] * t554;
        const V t582 = c[1] * t558;
        const V t583 = t581 - t582;
        const V t584 = t583 + t550;
        const V t585 = c[2] * t553;
        const V t586 = c[3] * t557;
        const V t587 = t585 + t586;
        const V t588 = t584 - t587;
        io.out(31, t588);
        const V t589 = t584 + t587;
        io.out(3, t589);
        const V t590 = c[1] * t554;
        const V t591 = t550 - t590;
        const V t592 = c[0] * t558;
        const V t593 = t591 + t592;
        const V t594 = c[3] * t553;
        const V t595 = c[2] * t557;
        const V t596 = t594 - t595;
        const V t597 = t593 - t596;
        io.out(23, t597);
        const V t598 = t593 + t596;
        io.out(27, t598);
        // spectrum block of 11, multiplier 4
        const V t599 = t47 + t487;
        io.out(11, t599);
    }
};

}  // namespace zulg
