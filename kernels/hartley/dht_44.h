// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 44.
// Hartley transform of 44 points, form I.
// 216 additions, 184 subtractions, 200 multiplications (244 with `scale`); 14 constants; 67 values alive at most.
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
        0.5539145271232301,  // c[6]: Q[4] of 11
        0.3649365652299704,  // c[7]: -P[4] of 11
        0.6355539395974166,  // c[8]: -Q[2] of 11
        0.18992416871531467,  // c[9]: -P[2] of 11
        0.6617220446385197,  // c[10]: P[3] of 11
        0.046086176229070706,  // c[11]: -Q[3] of 11
        0.33166247903553997,  // c[12]: -beta of 11
        0.1,  // c[13]: 1/10
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x22 = io.in(22);
        const V t0 = x0 + x22;
        const V t1 = x0 - x22;
        // input stage
        const V x11 = io.in(11);
        const V x33 = io.in(33);
        const V t2 = x11 + x33;
        const V t3 = x11 - x33;
        // spectrum block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // spectrum block of 2
        const V t6 = t1 + t3;
        const V t7 = t1 - t3;
        // input stage
        const V x1 = io.in(1);
        const V x43 = io.in(43);
        const V t8 = x1 + x43;
        const V t9 = x1 - x43;
        const V x10 = io.in(10);
        const V x34 = io.in(34);
        const V t10 = x10 + x34;
        const V t11 = x10 - x34;
        const V x12 = io.in(12);
        const V x32 = io.in(32);
        const V t12 = x12 + x32;
        const V t13 = x12 - x32;
        const V x21 = io.in(21);
        const V x23 = io.in(23);
        const V t14 = x21 + x23;
        const V t15 = x21 - x23;
        // complex block of 2
        const V t16 = t13 - t11;
        // complex block of 2
        const V t17 = t9 - t15;
        // complex block of 2
        const V t18 = t16 + t17;
        const V t19 = t16 - t17;
        // complex block of 2
        const V t20 = t12 + t10;
        // complex block of 2
        const V t21 = t14 + t8;
        // complex block of 2
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        // complex block of 2
        const V t24 = t13 + t11;
        // complex block of 2
        const V t25 = t14 - t8;
        // complex block of 2
        const V t26 = t24 - t25;
        const V t27 = t24 + t25;
        // complex block of 2
        const V t28 = t12 - t10;
        // complex block of 2
        const V t29 = t15 + t9;
        // complex block of 2
        const V t30 = t28 - t29;
        const V t31 = t28 + t29;
        // input stage
        const V x2 = io.in(2);
        const V x42 = io.in(42);
        const V t32 = x2 + x42;
        const V t33 = x2 - x42;
        const V x9 = io.in(9);
        const V x35 = io.in(35);
        const V t34 = x9 + x35;
        const V t35 = x9 - x35;
        const V x13 = io.in(13);
        const V x31 = io.in(31);
        const V t36 = x13 + x31;
        const V t37 = x13 - x31;
        const V x20 = io.in(20);
        const V x24 = io.in(24);
        const V t38 = x20 + x24;
        const V t39 = x20 - x24;
        // complex block of 2
        const V t40 = t39 - t33;
        // complex block of 2
        const V t41 = t35 - t37;
        // complex block of 2
        const V t42 = t40 + t41;
        const V t43 = t40 - t41;
        // complex block of 2
        const V t44 = t38 + t32;
        // complex block of 2
        const V t45 = t36 + t34;
        // complex block of 2
        const V t46 = t44 + t45;
        const V t47 = t44 - t45;
        // complex block of 2
        const V t48 = t39 + t33;
        // complex block of 2
        const V t49 = t36 - t34;
        // complex block of 2
        const V t50 = t48 - t49;
        const V t51 = t48 + t49;
        // complex block of 2
        const V t52 = t38 - t32;
        // complex block of 2
        const V t53 = t37 + t35;
        // complex block of 2
        const V t54 = t52 - t53;
        const V t55 = t52 + t53;
        // input stage
        const V x3 = io.in(3);
        const V x41 = io.in(41);
        const V t56 = x3 + x41;
        const V t57 = x3 - x41;
        const V x8 = io.in(8);
        const V x36 = io.in(36);
        const V t58 = x8 + x36;
        const V t59 = x8 - x36;
        const V x14 = io.in(14);
        const V x30 = io.in(30);
        const V t60 = x14 + x30;
        const V t61 = x14 - x30;
        const V x19 = io.in(19);
        const V x25 = io.in(25);
        const V t62 = x19 + x25;
        const V t63 = x19 - x25;
        // complex block of 2
        const V t64 = t59 - t61;
        // complex block of 2
        const V t65 = t63 - t57;
        // complex block of 2
        const V t66 = t64 + t65;
        const V t67 = t64 - t65;
        // complex block of 2
        const V t68 = t58 + t60;
        // complex block of 2
        const V t69 = t62 + t56;
        // complex block of 2
        const V t70 = t68 + t69;
        const V t71 = t68 - t69;
        // complex block of 2
        const V t72 = t59 + t61;
        // complex block of 2
        const V t73 = t62 - t56;
        // complex block of 2
        const V t74 = t72 - t73;
        const V t75 = t72 + t73;
        // complex block of 2
        const V t76 = t58 - t60;
        // complex block of 2
        const V t77 = t63 + t57;
        // complex block of 2
        const V t78 = t76 + t77;
        const V t79 = t76 - t77;
        // input stage
        const V x4 = io.in(4);
        const V x40 = io.in(40);
        const V t80 = x4 + x40;
        const V t81 = x4 - x40;
        const V x18 = io.in(18);
        const V x26 = io.in(26);
        const V t82 = x18 + x26;
        const V t83 = x18 - x26;
        // complex block of 2
        const V t84 = t81 - t83;
        const V t85 = t80 + t82;
        const V t86 = t81 + t83;
        const V t87 = t80 - t82;
        // input stage
        const V x5 = io.in(5);
        const V x39 = io.in(39);
        const V t88 = x5 + x39;
        const V t89 = x5 - x39;
        const V x6 = io.in(6);
        const V x38 = io.in(38);
        const V t90 = x6 + x38;
        const V t91 = x6 - x38;
        const V x16 = io.in(16);
        const V x28 = io.in(28);
        const V t92 = x16 + x28;
        const V t93 = x16 - x28;
        const V x17 = io.in(17);
        const V x27 = io.in(27);
        const V t94 = x17 + x27;
        const V t95 = x17 - x27;
        // complex block of 2
        const V t96 = t93 - t91;
        // complex block of 2
        const V t97 = t89 - t95;
        // complex block of 2
        const V t98 = t96 + t97;
        const V t99 = t96 - t97;
        // complex block of 2
        const V t100 = t92 + t90;
        // complex block of 2
        const V t101 = t94 + t88;
        // complex block of 2
        const V t102 = t100 + t101;
        const V t103 = t100 - t101;
        // complex block of 2
        const V t104 = t93 + t91;
        // complex block of 2
        const V t105 = t94 - t88;
        // complex block of 2
        const V t106 = t104 - t105;
        const V t107 = t104 + t105;
        // complex block of 2
        const V t108 = t92 - t90;
        // complex block of 2
        const V t109 = t95 + t89;
        // complex block of 2
        const V t110 = t108 - t109;
        const V t111 = t108 + t109;
        // input stage
        const V x7 = io.in(7);
        const V x37 = io.in(37);
        const V t112 = x7 + x37;
        const V t113 = x7 - x37;
        const V x15 = io.in(15);
        const V x29 = io.in(29);
        const V t114 = x15 + x29;
        const V t115 = x15 - x29;
        // complex block of 2
        const V t116 = t115 - t113;
        const V t117 = t114 + t112;
        const V t118 = t115 + t113;
        const V t119 = t114 - t112;
        // complex block of 2
        const V t120 = t84 + t116;
        // real block of 5
        const V t121 = t42 - t66;
        const V t122 = c[0] * t121;
        const V t123 = c[1] * t121;
        const V t124 = t18 + t98;
        const V t125 = c[1] * t124;
        const V t126 = c[0] * t124;
        const V t127 = t121 + t124;
        const V t128 = t122 - t125;
        const V t129 = t128 + t120;
        const V t130 = t120 - t123;
        const V t131 = t130 + t126;
        // complex block of 2
        const V t132 = t85 + t117;
        // real block of 5
        const V t133 = t70 + t46;
        const V t134 = t22 + t102;
        const V t135 = t133 + t134;
        const V t136 = c[0] * t133;
        const V t137 = c[1] * t134;
        const V t138 = c[1] * t133;
        const V t139 = c[0] * t134;
        const V t140 = t135 + t132;
        const V t141 = t136 - t137;
        const V t142 = t141 + t132;
        const V t143 = t132 - t138;
        const V t144 = t143 + t139;
        // complex block of 2
        const V t145 = t84 - t116;
        // real block of 5
        const V t146 = t43 - t67;
        const V t147 = c[0] * t146;
        const V t148 = c[1] * t146;
        const V t149 = t19 + t99;
        const V t150 = c[1] * t149;
        const V t151 = c[0] * t149;
        const V t152 = t146 + t149;
        const V t153 = t147 - t150;
        const V t154 = t153 + t145;
        const V t155 = t145 - t148;
        const V t156 = t155 + t151;
        // complex block of 2
        const V t157 = t85 - t117;
        // real block of 5
        const V t158 = t71 + t47;
        const V t159 = t23 + t103;
        const V t160 = t158 + t159;
        const V t161 = c[0] * t158;
        const V t162 = c[1] * t159;
        const V t163 = c[1] * t158;
        const V t164 = c[0] * t159;
        const V t165 = t160 + t157;
        const V t166 = t161 - t162;
        const V t167 = t166 + t157;
        const V t168 = t157 - t163;
        const V t169 = t168 + t164;
        // complex block of 2
        const V t170 = t86 - t119;
        // real block of 5
        const V t171 = t50 - t74;
        const V t172 = c[0] * t171;
        const V t173 = c[1] * t171;
        const V t174 = t26 + t106;
        const V t175 = c[1] * t174;
        const V t176 = c[0] * t174;
        const V t177 = t171 + t174;
        const V t178 = t172 - t175;
        const V t179 = t178 + t170;
        const V t180 = t170 - t173;
        const V t181 = t180 + t176;
        // complex block of 2
        const V t182 = t87 + t118;
        // real block of 5
        const V t183 = t78 + t54;
        const V t184 = t30 + t110;
        const V t185 = t183 + t184;
        const V t186 = c[0] * t183;
        const V t187 = c[1] * t184;
        const V t188 = c[1] * t183;
        const V t189 = c[0] * t184;
        const V t190 = t185 + t182;
        const V t191 = t186 - t187;
        const V t192 = t191 + t182;
        const V t193 = t182 - t188;
        const V t194 = t193 + t189;
        // complex block of 2
        const V t195 = t86 + t119;
        // real block of 5
        const V t196 = t51 - t75;
        const V t197 = c[0] * t196;
        const V t198 = c[1] * t196;
        const V t199 = t27 + t107;
        const V t200 = c[1] * t199;
        const V t201 = c[0] * t199;
        const V t202 = t196 + t199;
        const V t203 = t197 - t200;
        const V t204 = t203 + t195;
        const V t205 = t195 - t198;
        const V t206 = t205 + t201;
        // complex block of 2
        const V t207 = t87 - t118;
        // real block of 5
        const V t208 = t79 + t55;
        const V t209 = t31 + t111;
        const V t210 = t208 + t209;
        const V t211 = c[0] * t208;
        const V t212 = c[1] * t209;
        const V t213 = c[1] * t208;
        const V t214 = c[0] * t209;
        const V t215 = t210 + t207;
        const V t216 = t211 - t212;
        const V t217 = t216 + t207;
        const V t218 = t207 - t213;
        const V t219 = t218 + t214;
        // real block of 5
        const V t220 = t70 - t46;
        const V t221 = c[2] * t220;
        const V t222 = c[3] * t220;
        const V t223 = t22 - t102;
        const V t224 = c[3] * t223;
        const V t225 = c[2] * t223;
        const V t226 = t224 - t221;
        const V t227 = t222 + t225;
        // real block of 5
        const V t228 = t66 + t42;
        const V t229 = c[2] * t228;
        const V t230 = c[3] * t228;
        const V t231 = t18 - t98;
        const V t232 = c[3] * t231;
        const V t233 = c[2] * t231;
        const V t234 = t229 + t232;
        const V t235 = t230 - t233;
        // real block of 5
        const V t236 = t78 - t54;
        const V t237 = c[2] * t236;
        const V t238 = c[3] * t236;
        const V t239 = t30 - t110;
        const V t240 = c[3] * t239;
        const V t241 = c[2] * t239;
        const V t242 = t240 - t237;
        const V t243 = t238 + t241;
        // real block of 5
        const V t244 = t74 + t50;
        const V t245 = c[2] * t244;
        const V t246 = c[3] * t244;
        const V t247 = t26 - t106;
        const V t248 = c[3] * t247;
        const V t249 = c[2] * t247;
        const V t250 = t245 + t248;
        const V t251 = t246 - t249;
        // real block of 5
        const V t252 = t71 - t47;
        const V t253 = c[2] * t252;
        const V t254 = c[3] * t252;
        const V t255 = t23 - t103;
        const V t256 = c[3] * t255;
        const V t257 = c[2] * t255;
        const V t258 = t256 - t253;
        const V t259 = t254 + t257;
        // real block of 5
        const V t260 = t67 + t43;
        const V t261 = c[2] * t260;
        const V t262 = c[3] * t260;
        const V t263 = t19 - t99;
        const V t264 = c[3] * t263;
        const V t265 = c[2] * t263;
        const V t266 = t261 + t264;
        const V t267 = t262 - t265;
        // real block of 5
        const V t268 = t79 - t55;
        const V t269 = c[2] * t268;
        const V t270 = c[3] * t268;
        const V t271 = t31 - t111;
        const V t272 = c[3] * t271;
        const V t273 = c[2] * t271;
        const V t274 = t272 - t269;
        const V t275 = t270 + t273;
        // real block of 5
        const V t276 = t75 + t51;
        const V t277 = c[2] * t276;
        const V t278 = c[3] * t276;
        const V t279 = t27 - t107;
        const V t280 = c[3] * t279;
        const V t281 = c[2] * t279;
        const V t282 = t277 + t280;
        const V t283 = t278 - t281;
        // real block of 5
        const V t284 = t127 + t120;
        // spectrum block of 11, multiplier 4
        const V t285 = c[12] * t284;
        const V t286 = c[13] * t140;
        const V t287 = t4 - t286;
        // spectrum block of 2
        const V t288 = t287 - t285;
        const V t289 = t287 + t285;
        // spectrum block of 11, multiplier 4
        const V t290 = c[4] * t235;
        const V t291 = c[5] * t131;
        const V t292 = t290 - t291;
        const V t293 = c[6] * t227;
        const V t294 = c[7] * t144;
        const V t295 = t293 - t294;
        // complex block of 2
        const V t296 = t295 + t292;
        // spectrum block of 5, multiplier 2
        const V t297 = c[1] * t296;
        // complex block of 2
        const V t298 = t295 - t292;
        // spectrum block of 5, multiplier 2
        const V t299 = c[1] * t298;
        // spectrum block of 11, multiplier 4
        const V t300 = c[4] * t131;
        const V t301 = c[5] * t235;
        const V t302 = t301 + t300;
        const V t303 = c[6] * t144;
        const V t304 = c[7] * t227;
        const V t305 = t304 + t303;
        // complex block of 2
        const V t306 = t305 - t302;
        const V t307 = t305 + t302;
        // spectrum block of 11, multiplier 4
        const V t308 = c[8] * t226;
        const V t309 = c[9] * t142;
        const V t310 = t308 - t309;
        const V t311 = c[10] * t234;
        const V t312 = c[11] * t129;
        const V t313 = t311 - t312;
        // complex block of 2
        const V t314 = t310 + t313;
        // spectrum block of 5, multiplier 2
        const V t315 = c[0] * t314;
        const V t316 = c[1] * t314;
        // complex block of 2
        const V t317 = t310 - t313;
        // spectrum block of 5, multiplier 2
        const V t318 = c[0] * t317;
        const V t319 = c[1] * t317;
        // spectrum block of 11, multiplier 4
        const V t320 = c[8] * t142;
        const V t321 = c[9] * t226;
        const V t322 = t321 + t320;
        const V t323 = c[10] * t129;
        const V t324 = c[11] * t234;
        const V t325 = t324 + t323;
        // complex block of 2
        const V t326 = t322 + t325;
        const V t327 = t325 - t322;
        // spectrum block of 5, multiplier 2
        const V t328 = t314 + t296;
        const V t329 = t328 + t288;
        io.out(40, t329);
        const V t330 = t315 - t297;
        const V t331 = t330 + t288;
        const V t332 = c[2] * t326;
        const V t333 = c[3] * t306;
        const V t334 = t333 - t332;
        const V t335 = t331 - t334;
        io.out(24, t335);
        const V t336 = t331 + t334;
        io.out(8, t336);
        const V t337 = t288 - t316;
        const V t338 = c[0] * t296;
        const V t339 = t337 + t338;
        const V t340 = c[3] * t326;
        const V t341 = c[2] * t306;
        const V t342 = t340 + t341;
        const V t343 = t339 + t342;
        io.out(32, t343);
        const V t344 = t339 - t342;
        io.out(28, t344);
        // spectrum block of 5, multiplier 2
        const V t345 = t317 + t298;
        const V t346 = t345 + t289;
        io.out(4, t346);
        const V t347 = t318 - t299;
        const V t348 = t347 + t289;
        const V t349 = c[2] * t327;
        const V t350 = c[3] * t307;
        const V t351 = t349 + t350;
        const V t352 = t348 - t351;
        io.out(20, t352);
        const V t353 = t348 + t351;
        io.out(36, t353);
        const V t354 = t289 - t319;
        const V t355 = c[0] * t298;
        const V t356 = t354 + t355;
        const V t357 = c[3] * t327;
        const V t358 = c[2] * t307;
        const V t359 = t357 - t358;
        const V t360 = t356 - t359;
        io.out(12, t360);
        const V t361 = t356 + t359;
        io.out(16, t361);
        // spectrum block of 11, multiplier 4
        const V t362 = t4 + t140;
        io.out(0, t362);
        // real block of 5
        const V t363 = t177 + t170;
        // spectrum block of 11, multiplier 4
        const V t364 = c[12] * t363;
        const V t365 = c[13] * t190;
        const V t366 = t6 - t365;
        // spectrum block of 2
        const V t367 = t366 - t364;
        const V t368 = t366 + t364;
        // spectrum block of 11, multiplier 4
        const V t369 = c[4] * t251;
        const V t370 = c[5] * t181;
        const V t371 = t369 - t370;
        const V t372 = c[6] * t243;
        const V t373 = c[7] * t194;
        const V t374 = t372 - t373;
        // complex block of 2
        const V t375 = t374 + t371;
        // spectrum block of 5, multiplier 2
        const V t376 = c[1] * t375;
        // complex block of 2
        const V t377 = t374 - t371;
        // spectrum block of 5, multiplier 2
        const V t378 = c[1] * t377;
        // spectrum block of 11, multiplier 4
        const V t379 = c[4] * t181;
        const V t380 = c[5] * t251;
        const V t381 = t380 + t379;
        const V t382 = c[6] * t194;
        const V t383 = c[7] * t243;
        const V t384 = t383 + t382;
        // complex block of 2
        const V t385 = t384 - t381;
        const V t386 = t384 + t381;
        // spectrum block of 11, multiplier 4
        const V t387 = c[8] * t242;
        const V t388 = c[9] * t192;
        const V t389 = t387 - t388;
        const V t390 = c[10] * t250;
        const V t391 = c[11] * t179;
        const V t392 = t390 - t391;
        // complex block of 2
        const V t393 = t389 + t392;
        // spectrum block of 5, multiplier 2
        const V t394 = c[0] * t393;
        const V t395 = c[1] * t393;
        // complex block of 2
        const V t396 = t389 - t392;
        // spectrum block of 5, multiplier 2
        const V t397 = c[0] * t396;
        const V t398 = c[1] * t396;
        // spectrum block of 11, multiplier 4
        const V t399 = c[8] * t192;
        const V t400 = c[9] * t242;
        const V t401 = t400 + t399;
        const V t402 = c[10] * t179;
        const V t403 = c[11] * t250;
        const V t404 = t403 + t402;
        // complex block of 2
        const V t405 = t401 + t404;
        const V t406 = t404 - t401;
        // spectrum block of 5, multiplier 2
        const V t407 = t393 + t375;
        const V t408 = t407 + t367;
        io.out(29, t408);
        const V t409 = t394 - t376;
        const V t410 = t409 + t367;
        const V t411 = c[2] * t405;
        const V t412 = c[3] * t385;
        const V t413 = t412 - t411;
        const V t414 = t410 - t413;
        io.out(13, t414);
        const V t415 = t410 + t413;
        io.out(41, t415);
        const V t416 = t367 - t395;
        const V t417 = c[0] * t375;
        const V t418 = t416 + t417;
        const V t419 = c[3] * t405;
        const V t420 = c[2] * t385;
        const V t421 = t419 + t420;
        const V t422 = t418 + t421;
        io.out(21, t422);
        const V t423 = t418 - t421;
        io.out(17, t423);
        // spectrum block of 5, multiplier 2
        const V t424 = t396 + t377;
        const V t425 = t424 + t368;
        io.out(37, t425);
        const V t426 = t397 - t378;
        const V t427 = t426 + t368;
        const V t428 = c[2] * t406;
        const V t429 = c[3] * t386;
        const V t430 = t428 + t429;
        const V t431 = t427 - t430;
        io.out(9, t431);
        const V t432 = t427 + t430;
        io.out(25, t432);
        const V t433 = t368 - t398;
        const V t434 = c[0] * t377;
        const V t435 = t433 + t434;
        const V t436 = c[3] * t406;
        const V t437 = c[2] * t386;
        const V t438 = t436 - t437;
        const V t439 = t435 - t438;
        io.out(1, t439);
        const V t440 = t435 + t438;
        io.out(5, t440);
        // spectrum block of 11, multiplier 4
        const V t441 = t6 + t190;
        io.out(33, t441);
        // real block of 5
        const V t442 = t152 + t145;
        // spectrum block of 11, multiplier 4
        const V t443 = c[12] * t442;
        const V t444 = c[13] * t165;
        const V t445 = t5 - t444;
        // spectrum block of 2
        const V t446 = t445 - t443;
        const V t447 = t445 + t443;
        // spectrum block of 11, multiplier 4
        const V t448 = c[4] * t267;
        const V t449 = c[5] * t156;
        const V t450 = t448 - t449;
        const V t451 = c[6] * t259;
        const V t452 = c[7] * t169;
        const V t453 = t451 - t452;
        // complex block of 2
        const V t454 = t453 + t450;
        // spectrum block of 5, multiplier 2
        const V t455 = c[1] * t454;
        // complex block of 2
        const V t456 = t453 - t450;
        // spectrum block of 5, multiplier 2
        const V t457 = c[1] * t456;
        // spectrum block of 11, multiplier 4
        const V t458 = c[4] * t156;
        const V t459 = c[5] * t267;
        const V t460 = t459 + t458;
        const V t461 = c[6] * t169;
        const V t462 = c[7] * t259;
        const V t463 = t462 + t461;
        // complex block of 2
        const V t464 = t463 - t460;
        const V t465 = t463 + t460;
        // spectrum block of 11, multiplier 4
        const V t466 = c[8] * t258;
        const V t467 = c[9] * t167;
        const V t468 = t466 - t467;
        const V t469 = c[10] * t266;
        const V t470 = c[11] * t154;
        const V t471 = t469 - t470;
        // complex block of 2
        const V t472 = t468 + t471;
        // spectrum block of 5, multiplier 2
        const V t473 = c[0] * t472;
        const V t474 = c[1] * t472;
        // complex block of 2
        const V t475 = t468 - t471;
        // spectrum block of 5, multiplier 2
        const V t476 = c[0] * t475;
        const V t477 = c[1] * t475;
        // spectrum block of 11, multiplier 4
        const V t478 = c[8] * t167;
        const V t479 = c[9] * t258;
        const V t480 = t479 + t478;
        const V t481 = c[10] * t154;
        const V t482 = c[11] * t266;
        const V t483 = t482 + t481;
        // complex block of 2
        const V t484 = t480 + t483;
        const V t485 = t483 - t480;
        // spectrum block of 5, multiplier 2
        const V t486 = t472 + t454;
        const V t487 = t486 + t446;
        io.out(18, t487);
        const V t488 = t473 - t455;
        const V t489 = t488 + t446;
        const V t490 = c[2] * t484;
        const V t491 = c[3] * t464;
        const V t492 = t491 - t490;
        const V t493 = t489 - t492;
        io.out(2, t493);
        const V t494 = t489 + t492;
        io.out(30, t494);
        const V t495 = t446 - t474;
        const V t496 = c[0] * t454;
        const V t497 = t495 + t496;
        const V t498 = c[3] * t484;
        const V t499 = c[2] * t464;
        const V t500 = t498 + t499;
        const V t501 = t497 + t500;
        io.out(10, t501);
        const V t502 = t497 - t500;
        io.out(6, t502);
        // spectrum block of 5, multiplier 2
        const V t503 = t475 + t456;
        const V t504 = t503 + t447;
        io.out(26, t504);
        const V t505 = t476 - t457;
        const V t506 = t505 + t447;
        const V t507 = c[2] * t485;
        const V t508 = c[3] * t465;
        const V t509 = t507 + t508;
        const V t510 = t506 - t509;
        io.out(42, t510);
        const V t511 = t506 + t509;
        io.out(14, t511);
        const V t512 = t447 - t477;
        const V t513 = c[0] * t456;
        const V t514 = t512 + t513;
        const V t515 = c[3] * t485;
        const V t516 = c[2] * t465;
        const V t517 = t515 - t516;
        const V t518 = t514 - t517;
        io.out(34, t518);
        const V t519 = t514 + t517;
        io.out(38, t519);
        // spectrum block of 11, multiplier 4
        const V t520 = t5 + t165;
        io.out(22, t520);
        // real block of 5
        const V t521 = t202 + t195;
        // spectrum block of 11, multiplier 4
        const V t522 = c[12] * t521;
        const V t523 = c[13] * t215;
        const V t524 = t7 - t523;
        // spectrum block of 2
        const V t525 = t524 - t522;
        const V t526 = t524 + t522;
        // spectrum block of 11, multiplier 4
        const V t527 = c[4] * t283;
        const V t528 = c[5] * t206;
        const V t529 = t527 - t528;
        const V t530 = c[6] * t275;
        const V t531 = c[7] * t219;
        const V t532 = t530 - t531;
        // complex block of 2
        const V t533 = t532 + t529;
        // spectrum block of 5, multiplier 2
        const V t534 = c[1] * t533;
        // complex block of 2
        const V t535 = t532 - t529;
        // spectrum block of 5, multiplier 2
        const V t536 = c[1] * t535;
        // spectrum block of 11, multiplier 4
        const V t537 = c[4] * t206;
        const V t538 = c[5] * t283;
        const V t539 = t538 + t537;
        const V t540 = c[6] * t219;
        const V t541 = c[7] * t275;
        const V t542 = t541 + t540;
        // complex block of 2
        const V t543 = t542 - t539;
        const V t544 = t542 + t539;
        // spectrum block of 11, multiplier 4
        const V t545 = c[8] * t274;
        const V t546 = c[9] * t217;
        const V t547 = t545 - t546;
        const V t548 = c[10] * t282;
        const V t549 = c[11] * t204;
        const V t550 = t548 - t549;
        // complex block of 2
        const V t551 = t547 + t550;
        // spectrum block of 5, multiplier 2
        const V t552 = c[0] * t551;
        const V t553 = c[1] * t551;
        // complex block of 2
        const V t554 = t547 - t550;
        // spectrum block of 5, multiplier 2
        const V t555 = c[0] * t554;
        const V t556 = c[1] * t554;
        // spectrum block of 11, multiplier 4
        const V t557 = c[8] * t217;
        const V t558 = c[9] * t274;
        const V t559 = t558 + t557;
        const V t560 = c[10] * t204;
        const V t561 = c[11] * t282;
        const V t562 = t561 + t560;
        // complex block of 2
        const V t563 = t559 + t562;
        const V t564 = t562 - t559;
        // spectrum block of 5, multiplier 2
        const V t565 = t551 + t533;
        const V t566 = t565 + t525;
        io.out(7, t566);
        const V t567 = t552 - t534;
        const V t568 = t567 + t525;
        const V t569 = c[2] * t563;
        const V t570 = c[3] * t543;
        const V t571 = t570 - t569;
        const V t572 = t568 - t571;
        io.out(35, t572);
        const V t573 = t568 + t571;
        io.out(19, t573);
        const V t574 = t525 - t553;
        const V t575 = c[0] * t533;
        const V t576 = t574 + t575;
        const V t577 = c[3] * t563;
        const V t578 = c[2] * t543;
        const V t579 = t577 + t578;
        const V t580 = t576 + t579;
        io.out(43, t580);
        const V t581 = t576 - t579;
        io.out(39, t581);
        // spectrum block of 5, multiplier 2
        const V t582 = t554 + t535;
        const V t583 = t582 + t526;
        io.out(15, t583);
        const V t584 = t555 - t536;
        const V t585 = t584 + t526;
        const V t586 = c[2] * t564;
        const V t587 = c[3] * t544;
        const V t588 = t586 + t587;
        const V t589 = t585 - t588;
        io.out(31, t589);
        const V t590 = t585 + t588;
        io.out(3, t590);
        const V t591 = t526 - t556;
        const V t592 = c[0] * t535;
        const V t593 = t591 + t592;
        const V t594 = c[3] * t564;
        const V t595 = c[2] * t544;
        const V t596 = t594 - t595;
        const V t597 = t593 - t596;
        io.out(23, t597);
        const V t598 = t593 + t596;
        io.out(27, t598);
        // spectrum block of 11, multiplier 4
        const V t599 = t7 + t215;
        io.out(11, t599);
    }
};

}  // namespace zulg
