// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 52.
// Hartley transform of 52 points, form F.
// 232 additions, 232 subtractions, 164 multiplications (216 with `scale`); 16 constants; 54 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<52> {
    static constexpr int steps = 680;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6007253775544544,  // c[2]: -Q[1] of 13
        0.015496188988565054,  // c[3]: -P[1] of 13
        0.6008758031820526,  // c[4]: -Q[2] of 13
        0.007705858903092426,  // c[5]: P[2] of 13
        0.1741386011521359,  // c[6]: Q[3] of 13
        0.5751407294740031,  // c[7]: -P[3] of 13
        0.15924941320823024,  // c[8]: -Q[4] of 13
        0.5794400189009605,  // c[9]: -P[4] of 13
        0.5084294662830964,  // c[10]: -Q[5] of 13
        0.3203288761978803,  // c[11]: -P[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 3
        const V x12 = io.in(12);
        const V x36 = io.in(36);
        const V t0 = x12 + x36;
        const V t1 = x12 - x36;
        const V x4 = io.in(4);
        const V t2 = t0 + x4;
        const V t3 = c[0] * t0;
        const V t4 = x4 - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x44 = io.in(44);
        const V x28 = io.in(28);
        const V t6 = x44 + x28;
        const V t7 = x44 - x28;
        const V x32 = io.in(32);
        const V t8 = t6 + x32;
        const V t9 = c[0] * t6;
        const V t10 = x32 - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x40 = io.in(40);
        const V x16 = io.in(16);
        const V t12 = x40 + x16;
        const V t13 = x40 - x16;
        const V x48 = io.in(48);
        const V t14 = t12 + x48;
        const V t15 = c[0] * t12;
        const V t16 = x48 - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V x8 = io.in(8);
        const V x24 = io.in(24);
        const V t18 = x8 + x24;
        const V t19 = x8 - x24;
        const V x20 = io.in(20);
        const V t20 = t18 + x20;
        const V t21 = c[0] * t18;
        const V t22 = x20 - t21;
        const V t23 = c[1] * t19;
        // real block of 2
        const V t24 = t2 + t14;
        const V t25 = t2 - t14;
        // real block of 2
        const V t26 = t8 + t20;
        const V t27 = t8 - t20;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // complex block of 2
        const V t30 = t4 + t16;
        const V t31 = t5 + t17;
        const V t32 = t4 - t16;
        const V t33 = t17 - t5;
        // complex block of 2
        const V t34 = t10 + t22;
        const V t35 = t11 + t23;
        const V t36 = t10 - t22;
        const V t37 = t23 - t11;
        // complex block of 2
        const V t38 = t30 + t34;
        const V t39 = t31 + t35;
        const V t40 = t30 - t34;
        const V t41 = t35 - t31;
        // complex block of 2
        const V t42 = t32 - t37;
        const V t43 = t33 + t36;
        const V t44 = t32 + t37;
        const V t45 = t33 - t36;
        // real block of 13, multiplier 4
        const V x0 = io.in(0);
        const V t46 = x0 + t28;
        const V t47 = c[12] * t28;
        const V t48 = x0 - t47;
        const V t49 = c[2] * t45;
        const V t50 = c[3] * t44;
        const V t51 = t49 - t50;
        const V t52 = c[2] * t44;
        const V t53 = c[3] * t45;
        const V t54 = t53 + t52;
        const V t55 = c[4] * t41;
        const V t56 = c[5] * t40;
        const V t57 = t56 - t55;
        const V t58 = c[4] * t40;
        const V t59 = c[5] * t41;
        const V t60 = t59 + t58;
        const V t61 = c[6] * t27;
        const V t62 = c[7] * t25;
        const V t63 = t62 + t61;
        const V t64 = c[6] * t25;
        const V t65 = c[7] * t27;
        const V t66 = t64 - t65;
        const V t67 = c[8] * t39;
        const V t68 = c[9] * t38;
        const V t69 = t68 + t67;
        const V t70 = c[8] * t38;
        const V t71 = c[9] * t39;
        const V t72 = t71 - t70;
        const V t73 = c[10] * t43;
        const V t74 = c[11] * t42;
        const V t75 = t74 + t73;
        const V t76 = c[10] * t42;
        const V t77 = c[11] * t43;
        const V t78 = t77 - t76;
        const V t79 = c[13] * t29;
        // spectrum block of 2
        const V t80 = t48 + t79;
        const V t81 = t48 - t79;
        // complex block of 2
        const V t82 = t72 + t60;
        const V t83 = t57 - t69;
        const V t84 = t72 - t60;
        const V t85 = t69 + t57;
        // spectrum block of 3, multiplier 2
        const V t86 = t83 + t80;
        const V t87 = c[0] * t83;
        const V t88 = t80 - t87;
        const V t89 = c[1] * t82;
        const V t90 = t88 - t89;
        const V t91 = t88 + t89;
        // spectrum block of 3, multiplier 2
        const V t92 = t81 - t85;
        const V t93 = c[0] * t85;
        const V t94 = t93 + t81;
        const V t95 = c[1] * t84;
        const V t96 = t94 - t95;
        const V t97 = t94 + t95;
        // complex block of 2
        const V t98 = t51 + t75;
        const V t99 = t78 - t54;
        const V t100 = t75 - t51;
        const V t101 = t54 + t78;
        // mirrored skew block of 6
        const V t102 = c[0] * t100;
        const V t103 = c[1] * t101;
        const V t104 = t103 + t102;
        // spectrum block of 3, multiplier 2
        const V t105 = t99 + t66;
        const V t106 = c[0] * t99;
        const V t107 = t66 - t106;
        const V t108 = c[1] * t98;
        const V t109 = t107 - t108;
        const V t110 = t107 + t108;
        // spectrum block of 3, multiplier 2
        const V t111 = t104 + t63;
        const V t112 = c[0] * t104;
        const V t113 = t112 - t63;
        const V t114 = c[14] * t100;
        const V t115 = c[15] * t101;
        const V t116 = t114 - t115;
        const V t117 = t113 + t116;
        const V t118 = t113 - t116;
        // real block of 3
        const V x25 = io.in(25);
        const V x49 = io.in(49);
        const V t119 = x25 + x49;
        const V t120 = x25 - x49;
        const V x17 = io.in(17);
        const V t121 = t119 + x17;
        const V t122 = c[0] * t119;
        const V t123 = x17 - t122;
        const V t124 = c[1] * t120;
        // real block of 3
        const V x5 = io.in(5);
        const V x41 = io.in(41);
        const V t125 = x5 + x41;
        const V t126 = x5 - x41;
        const V x45 = io.in(45);
        const V t127 = t125 + x45;
        const V t128 = c[0] * t125;
        const V t129 = x45 - t128;
        const V t130 = c[1] * t126;
        // real block of 3
        const V x1 = io.in(1);
        const V x29 = io.in(29);
        const V t131 = x1 + x29;
        const V t132 = x1 - x29;
        const V x9 = io.in(9);
        const V t133 = t131 + x9;
        const V t134 = c[0] * t131;
        const V t135 = x9 - t134;
        const V t136 = c[1] * t132;
        // real block of 3
        const V x21 = io.in(21);
        const V x37 = io.in(37);
        const V t137 = x21 + x37;
        const V t138 = x21 - x37;
        const V x33 = io.in(33);
        const V t139 = t137 + x33;
        const V t140 = c[0] * t137;
        const V t141 = x33 - t140;
        const V t142 = c[1] * t138;
        // real block of 2
        const V t143 = t121 + t133;
        const V t144 = t121 - t133;
        // real block of 2
        const V t145 = t127 + t139;
        const V t146 = t127 - t139;
        // real block of 2
        const V t147 = t143 + t145;
        const V t148 = t143 - t145;
        // complex block of 2
        const V t149 = t123 + t135;
        const V t150 = t124 + t136;
        const V t151 = t123 - t135;
        const V t152 = t136 - t124;
        // complex block of 2
        const V t153 = t129 + t141;
        const V t154 = t130 + t142;
        const V t155 = t129 - t141;
        const V t156 = t142 - t130;
        // complex block of 2
        const V t157 = t149 + t153;
        const V t158 = t150 + t154;
        const V t159 = t149 - t153;
        const V t160 = t154 - t150;
        // complex block of 2
        const V t161 = t151 - t156;
        const V t162 = t152 + t155;
        const V t163 = t151 + t156;
        const V t164 = t152 - t155;
        // real block of 13, multiplier 4
        const V x13 = io.in(13);
        const V t165 = x13 + t147;
        const V t166 = c[12] * t147;
        const V t167 = x13 - t166;
        const V t168 = c[2] * t164;
        const V t169 = c[3] * t163;
        const V t170 = t168 - t169;
        const V t171 = c[2] * t163;
        const V t172 = c[3] * t164;
        const V t173 = t172 + t171;
        const V t174 = c[4] * t160;
        const V t175 = c[5] * t159;
        const V t176 = t175 - t174;
        const V t177 = c[4] * t159;
        const V t178 = c[5] * t160;
        const V t179 = t178 + t177;
        const V t180 = c[6] * t146;
        const V t181 = c[7] * t144;
        const V t182 = t181 + t180;
        const V t183 = c[6] * t144;
        const V t184 = c[7] * t146;
        const V t185 = t183 - t184;
        const V t186 = c[8] * t158;
        const V t187 = c[9] * t157;
        const V t188 = t187 + t186;
        const V t189 = c[8] * t157;
        const V t190 = c[9] * t158;
        const V t191 = t190 - t189;
        const V t192 = c[10] * t162;
        const V t193 = c[11] * t161;
        const V t194 = t193 + t192;
        const V t195 = c[10] * t161;
        const V t196 = c[11] * t162;
        const V t197 = t196 - t195;
        const V t198 = c[13] * t148;
        // spectrum block of 2
        const V t199 = t167 + t198;
        const V t200 = t167 - t198;
        // complex block of 2
        const V t201 = t191 + t179;
        const V t202 = t176 - t188;
        const V t203 = t191 - t179;
        const V t204 = t188 + t176;
        // spectrum block of 3, multiplier 2
        const V t205 = t202 + t199;
        const V t206 = c[0] * t202;
        const V t207 = t199 - t206;
        const V t208 = c[1] * t201;
        const V t209 = t207 - t208;
        const V t210 = t207 + t208;
        // spectrum block of 3, multiplier 2
        const V t211 = t200 - t204;
        const V t212 = c[0] * t204;
        const V t213 = t212 + t200;
        const V t214 = c[1] * t203;
        const V t215 = t213 - t214;
        const V t216 = t213 + t214;
        // complex block of 2
        const V t217 = t170 + t194;
        const V t218 = t197 - t173;
        const V t219 = t194 - t170;
        const V t220 = t173 + t197;
        // mirrored skew block of 6
        const V t221 = c[0] * t219;
        const V t222 = c[1] * t220;
        const V t223 = t222 + t221;
        // spectrum block of 3, multiplier 2
        const V t224 = t218 + t185;
        const V t225 = c[0] * t218;
        const V t226 = t185 - t225;
        const V t227 = c[1] * t217;
        const V t228 = t226 - t227;
        const V t229 = t226 + t227;
        // spectrum block of 3, multiplier 2
        const V t230 = t223 + t182;
        const V t231 = c[0] * t223;
        const V t232 = t231 - t182;
        const V t233 = c[14] * t219;
        const V t234 = c[15] * t220;
        const V t235 = t233 - t234;
        const V t236 = t232 + t235;
        const V t237 = t232 - t235;
        // real block of 3
        const V x38 = io.in(38);
        const V x10 = io.in(10);
        const V t238 = x38 + x10;
        const V t239 = x38 - x10;
        const V x30 = io.in(30);
        const V t240 = t238 + x30;
        const V t241 = c[0] * t238;
        const V t242 = x30 - t241;
        const V t243 = c[1] * t239;
        // real block of 3
        const V x18 = io.in(18);
        const V x2 = io.in(2);
        const V t244 = x18 + x2;
        const V t245 = x18 - x2;
        const V x6 = io.in(6);
        const V t246 = t244 + x6;
        const V t247 = c[0] * t244;
        const V t248 = x6 - t247;
        const V t249 = c[1] * t245;
        // real block of 3
        const V x14 = io.in(14);
        const V x42 = io.in(42);
        const V t250 = x14 + x42;
        const V t251 = x14 - x42;
        const V x22 = io.in(22);
        const V t252 = t250 + x22;
        const V t253 = c[0] * t250;
        const V t254 = x22 - t253;
        const V t255 = c[1] * t251;
        // real block of 3
        const V x34 = io.in(34);
        const V x50 = io.in(50);
        const V t256 = x34 + x50;
        const V t257 = x34 - x50;
        const V x46 = io.in(46);
        const V t258 = t256 + x46;
        const V t259 = c[0] * t256;
        const V t260 = x46 - t259;
        const V t261 = c[1] * t257;
        // real block of 2
        const V t262 = t240 + t252;
        const V t263 = t240 - t252;
        // real block of 2
        const V t264 = t246 + t258;
        const V t265 = t246 - t258;
        // real block of 2
        const V t266 = t262 + t264;
        const V t267 = t262 - t264;
        // complex block of 2
        const V t268 = t242 + t254;
        const V t269 = t243 + t255;
        const V t270 = t242 - t254;
        const V t271 = t255 - t243;
        // complex block of 2
        const V t272 = t248 + t260;
        const V t273 = t249 + t261;
        const V t274 = t248 - t260;
        const V t275 = t261 - t249;
        // complex block of 2
        const V t276 = t268 + t272;
        const V t277 = t269 + t273;
        const V t278 = t268 - t272;
        const V t279 = t273 - t269;
        // complex block of 2
        const V t280 = t270 - t275;
        const V t281 = t271 + t274;
        const V t282 = t270 + t275;
        const V t283 = t271 - t274;
        // real block of 13, multiplier 4
        const V x26 = io.in(26);
        const V t284 = x26 + t266;
        const V t285 = c[12] * t266;
        const V t286 = x26 - t285;
        const V t287 = c[2] * t283;
        const V t288 = c[3] * t282;
        const V t289 = t287 - t288;
        const V t290 = c[2] * t282;
        const V t291 = c[3] * t283;
        const V t292 = t291 + t290;
        const V t293 = c[4] * t279;
        const V t294 = c[5] * t278;
        const V t295 = t294 - t293;
        const V t296 = c[4] * t278;
        const V t297 = c[5] * t279;
        const V t298 = t297 + t296;
        const V t299 = c[6] * t265;
        const V t300 = c[7] * t263;
        const V t301 = t300 + t299;
        const V t302 = c[6] * t263;
        const V t303 = c[7] * t265;
        const V t304 = t302 - t303;
        const V t305 = c[8] * t277;
        const V t306 = c[9] * t276;
        const V t307 = t306 + t305;
        const V t308 = c[8] * t276;
        const V t309 = c[9] * t277;
        const V t310 = t309 - t308;
        const V t311 = c[10] * t281;
        const V t312 = c[11] * t280;
        const V t313 = t312 + t311;
        const V t314 = c[10] * t280;
        const V t315 = c[11] * t281;
        const V t316 = t315 - t314;
        const V t317 = c[13] * t267;
        // spectrum block of 2
        const V t318 = t286 + t317;
        const V t319 = t286 - t317;
        // complex block of 2
        const V t320 = t310 + t298;
        const V t321 = t295 - t307;
        const V t322 = t310 - t298;
        const V t323 = t307 + t295;
        // spectrum block of 3, multiplier 2
        const V t324 = t321 + t318;
        const V t325 = c[0] * t321;
        const V t326 = t318 - t325;
        const V t327 = c[1] * t320;
        const V t328 = t326 - t327;
        const V t329 = t326 + t327;
        // spectrum block of 3, multiplier 2
        const V t330 = t319 - t323;
        const V t331 = c[0] * t323;
        const V t332 = t331 + t319;
        const V t333 = c[1] * t322;
        const V t334 = t332 - t333;
        const V t335 = t332 + t333;
        // complex block of 2
        const V t336 = t289 + t313;
        const V t337 = t316 - t292;
        const V t338 = t313 - t289;
        const V t339 = t292 + t316;
        // mirrored skew block of 6
        const V t340 = c[0] * t338;
        const V t341 = c[1] * t339;
        const V t342 = t341 + t340;
        // spectrum block of 3, multiplier 2
        const V t343 = t337 + t304;
        const V t344 = c[0] * t337;
        const V t345 = t304 - t344;
        const V t346 = c[1] * t336;
        const V t347 = t345 - t346;
        const V t348 = t345 + t346;
        // spectrum block of 3, multiplier 2
        const V t349 = t342 + t301;
        const V t350 = c[0] * t342;
        const V t351 = t350 - t301;
        const V t352 = c[14] * t338;
        const V t353 = c[15] * t339;
        const V t354 = t352 - t353;
        const V t355 = t351 + t354;
        const V t356 = t351 - t354;
        // real block of 3
        const V x51 = io.in(51);
        const V x23 = io.in(23);
        const V t357 = x51 + x23;
        const V t358 = x51 - x23;
        const V x43 = io.in(43);
        const V t359 = t357 + x43;
        const V t360 = c[0] * t357;
        const V t361 = x43 - t360;
        const V t362 = c[1] * t358;
        // real block of 3
        const V x31 = io.in(31);
        const V x15 = io.in(15);
        const V t363 = x31 + x15;
        const V t364 = x31 - x15;
        const V x19 = io.in(19);
        const V t365 = t363 + x19;
        const V t366 = c[0] * t363;
        const V t367 = x19 - t366;
        const V t368 = c[1] * t364;
        // real block of 3
        const V x27 = io.in(27);
        const V x3 = io.in(3);
        const V t369 = x27 + x3;
        const V t370 = x27 - x3;
        const V x35 = io.in(35);
        const V t371 = t369 + x35;
        const V t372 = c[0] * t369;
        const V t373 = x35 - t372;
        const V t374 = c[1] * t370;
        // real block of 3
        const V x47 = io.in(47);
        const V x11 = io.in(11);
        const V t375 = x47 + x11;
        const V t376 = x47 - x11;
        const V x7 = io.in(7);
        const V t377 = t375 + x7;
        const V t378 = c[0] * t375;
        const V t379 = x7 - t378;
        const V t380 = c[1] * t376;
        // real block of 2
        const V t381 = t359 + t371;
        const V t382 = t359 - t371;
        // real block of 2
        const V t383 = t365 + t377;
        const V t384 = t365 - t377;
        // real block of 2
        const V t385 = t381 + t383;
        const V t386 = t381 - t383;
        // complex block of 2
        const V t387 = t361 + t373;
        const V t388 = t362 + t374;
        const V t389 = t361 - t373;
        const V t390 = t374 - t362;
        // complex block of 2
        const V t391 = t367 + t379;
        const V t392 = t368 + t380;
        const V t393 = t367 - t379;
        const V t394 = t380 - t368;
        // complex block of 2
        const V t395 = t387 + t391;
        const V t396 = t388 + t392;
        const V t397 = t387 - t391;
        const V t398 = t392 - t388;
        // complex block of 2
        const V t399 = t389 - t394;
        const V t400 = t390 + t393;
        const V t401 = t389 + t394;
        const V t402 = t390 - t393;
        // real block of 13, multiplier 4
        const V x39 = io.in(39);
        const V t403 = x39 + t385;
        const V t404 = c[12] * t385;
        const V t405 = x39 - t404;
        const V t406 = c[2] * t402;
        const V t407 = c[3] * t401;
        const V t408 = t406 - t407;
        const V t409 = c[2] * t401;
        const V t410 = c[3] * t402;
        const V t411 = t410 + t409;
        const V t412 = c[4] * t398;
        const V t413 = c[5] * t397;
        const V t414 = t413 - t412;
        const V t415 = c[4] * t397;
        const V t416 = c[5] * t398;
        const V t417 = t416 + t415;
        const V t418 = c[6] * t384;
        const V t419 = c[7] * t382;
        const V t420 = t419 + t418;
        const V t421 = c[6] * t382;
        const V t422 = c[7] * t384;
        const V t423 = t421 - t422;
        const V t424 = c[8] * t396;
        const V t425 = c[9] * t395;
        const V t426 = t425 + t424;
        const V t427 = c[8] * t395;
        const V t428 = c[9] * t396;
        const V t429 = t428 - t427;
        const V t430 = c[10] * t400;
        const V t431 = c[11] * t399;
        const V t432 = t431 + t430;
        const V t433 = c[10] * t399;
        const V t434 = c[11] * t400;
        const V t435 = t434 - t433;
        const V t436 = c[13] * t386;
        // spectrum block of 2
        const V t437 = t405 + t436;
        const V t438 = t405 - t436;
        // complex block of 2
        const V t439 = t429 + t417;
        const V t440 = t414 - t426;
        const V t441 = t429 - t417;
        const V t442 = t426 + t414;
        // spectrum block of 3, multiplier 2
        const V t443 = t440 + t437;
        const V t444 = c[0] * t440;
        const V t445 = t437 - t444;
        const V t446 = c[1] * t439;
        const V t447 = t445 - t446;
        const V t448 = t445 + t446;
        // spectrum block of 3, multiplier 2
        const V t449 = t438 - t442;
        const V t450 = c[0] * t442;
        const V t451 = t450 + t438;
        const V t452 = c[1] * t441;
        const V t453 = t451 - t452;
        const V t454 = t451 + t452;
        // complex block of 2
        const V t455 = t408 + t432;
        const V t456 = t435 - t411;
        const V t457 = t432 - t408;
        const V t458 = t411 + t435;
        // mirrored skew block of 6
        const V t459 = c[0] * t457;
        const V t460 = c[1] * t458;
        const V t461 = t460 + t459;
        // spectrum block of 3, multiplier 2
        const V t462 = t456 + t423;
        const V t463 = c[0] * t456;
        const V t464 = t423 - t463;
        const V t465 = c[1] * t455;
        const V t466 = t464 - t465;
        const V t467 = t464 + t465;
        // spectrum block of 3, multiplier 2
        const V t468 = t461 + t420;
        const V t469 = c[0] * t461;
        const V t470 = t469 - t420;
        const V t471 = c[14] * t457;
        const V t472 = c[15] * t458;
        const V t473 = t471 - t472;
        const V t474 = t470 + t473;
        const V t475 = t470 - t473;
        // real block of 2
        const V t476 = t46 + t284;
        const V t477 = t46 - t284;
        // real block of 2
        const V t478 = t165 + t403;
        const V t479 = t165 - t403;
        // real block of 2
        const V t480 = t476 + t478;
        io.out(0, t480);
        const V t481 = t476 - t478;
        io.out(26, t481);
        // complex block of 2
        const V t482 = t86 + t324;
        const V t483 = t105 + t343;
        const V t484 = t86 - t324;
        const V t485 = t105 - t343;
        // complex block of 2
        const V t486 = t205 + t443;
        const V t487 = t224 + t462;
        const V t488 = t205 - t443;
        const V t489 = t224 - t462;
        // complex block of 2
        const V t490 = t482 + t486;
        const V t491 = t483 + t487;
        const V t492 = t482 - t486;
        const V t493 = t483 - t487;
        // complex block of 2
        const V t494 = t484 + t489;
        const V t495 = t485 - t488;
        const V t496 = t484 - t489;
        const V t497 = t485 + t488;
        // complex block of 2
        const V t498 = t97 + t335;
        const V t499 = t118 + t356;
        const V t500 = t97 - t335;
        const V t501 = t356 - t118;
        // complex block of 2
        const V t502 = t216 + t454;
        const V t503 = t237 + t475;
        const V t504 = t216 - t454;
        const V t505 = t475 - t237;
        // complex block of 2
        const V t506 = t498 + t502;
        const V t507 = t499 + t503;
        const V t508 = t498 - t502;
        const V t509 = t503 - t499;
        // complex block of 2
        const V t510 = t500 + t505;
        const V t511 = t501 - t504;
        const V t512 = t500 - t505;
        const V t513 = t501 + t504;
        // complex block of 2
        const V t514 = t91 + t329;
        const V t515 = t109 + t347;
        const V t516 = t91 - t329;
        const V t517 = t109 - t347;
        // complex block of 2
        const V t518 = t210 + t448;
        const V t519 = t228 + t466;
        const V t520 = t210 - t448;
        const V t521 = t228 - t466;
        // complex block of 2
        const V t522 = t514 + t518;
        const V t523 = t515 + t519;
        const V t524 = t514 - t518;
        const V t525 = t515 - t519;
        // complex block of 2
        const V t526 = t516 + t521;
        const V t527 = t517 - t520;
        const V t528 = t516 - t521;
        const V t529 = t517 + t520;
        // complex block of 2
        const V t530 = t90 + t328;
        const V t531 = t110 + t348;
        const V t532 = t90 - t328;
        const V t533 = t348 - t110;
        // complex block of 2
        const V t534 = t209 + t447;
        const V t535 = t229 + t467;
        const V t536 = t209 - t447;
        const V t537 = t467 - t229;
        // complex block of 2
        const V t538 = t530 + t534;
        const V t539 = t531 + t535;
        const V t540 = t530 - t534;
        const V t541 = t535 - t531;
        // complex block of 2
        const V t542 = t532 + t537;
        const V t543 = t533 - t536;
        const V t544 = t532 - t537;
        const V t545 = t533 + t536;
        // complex block of 2
        const V t546 = t92 + t330;
        const V t547 = t117 + t355;
        const V t548 = t92 - t330;
        const V t549 = t355 - t117;
        // complex block of 2
        const V t550 = t211 + t449;
        const V t551 = t236 + t474;
        const V t552 = t211 - t449;
        const V t553 = t474 - t236;
        // complex block of 2
        const V t554 = t546 + t550;
        const V t555 = t547 + t551;
        const V t556 = t546 - t550;
        const V t557 = t551 - t547;
        // complex block of 2
        const V t558 = t548 + t553;
        const V t559 = t549 - t552;
        const V t560 = t548 - t553;
        const V t561 = t549 + t552;
        // complex block of 2
        const V t562 = t96 + t334;
        const V t563 = t111 + t349;
        const V t564 = t96 - t334;
        const V t565 = t111 - t349;
        // complex block of 2
        const V t566 = t215 + t453;
        const V t567 = t230 + t468;
        const V t568 = t215 - t453;
        const V t569 = t230 - t468;
        // complex block of 2
        const V t570 = t562 + t566;
        const V t571 = t563 + t567;
        const V t572 = t562 - t566;
        const V t573 = t563 - t567;
        // complex block of 2
        const V t574 = t564 + t569;
        const V t575 = t565 - t568;
        const V t576 = t564 - t569;
        const V t577 = t565 + t568;
        // output stage
        const V t578 = t528 + t529;
        io.out(1, t578);
        const V t579 = t528 - t529;
        io.out(51, t579);
        const V t580 = t572 + t573;
        io.out(2, t580);
        const V t581 = t572 - t573;
        io.out(50, t581);
        const V t582 = t544 - t545;
        io.out(3, t582);
        const V t583 = t544 + t545;
        io.out(49, t583);
        const V t584 = t490 - t491;
        io.out(4, t584);
        const V t585 = t490 + t491;
        io.out(48, t585);
        const V t586 = t512 + t513;
        io.out(5, t586);
        const V t587 = t512 - t513;
        io.out(47, t587);
        const V t588 = t556 + t557;
        io.out(6, t588);
        const V t589 = t556 - t557;
        io.out(46, t589);
        const V t590 = t560 - t561;
        io.out(7, t590);
        const V t591 = t560 + t561;
        io.out(45, t591);
        const V t592 = t506 + t507;
        io.out(8, t592);
        const V t593 = t506 - t507;
        io.out(44, t593);
        const V t594 = t496 + t497;
        io.out(9, t594);
        const V t595 = t496 - t497;
        io.out(43, t595);
        const V t596 = t540 + t541;
        io.out(10, t596);
        const V t597 = t540 - t541;
        io.out(42, t597);
        const V t598 = t576 - t577;
        io.out(11, t598);
        const V t599 = t576 + t577;
        io.out(41, t599);
        const V t600 = t522 - t523;
        io.out(12, t600);
        const V t601 = t522 + t523;
        io.out(40, t601);
        const V t602 = t477 + t479;
        io.out(13, t602);
        const V t603 = t477 - t479;
        io.out(39, t603);
        const V t604 = t524 + t525;
        io.out(14, t604);
        const V t605 = t524 - t525;
        io.out(38, t605);
        const V t606 = t574 + t575;
        io.out(15, t606);
        const V t607 = t574 - t575;
        io.out(37, t607);
        const V t608 = t538 + t539;
        io.out(16, t608);
        const V t609 = t538 - t539;
        io.out(36, t609);
        const V t610 = t494 - t495;
        io.out(17, t610);
        const V t611 = t494 + t495;
        io.out(35, t611);
        const V t612 = t508 + t509;
        io.out(18, t612);
        const V t613 = t508 - t509;
        io.out(34, t613);
        const V t614 = t558 + t559;
        io.out(19, t614);
        const V t615 = t558 - t559;
        io.out(33, t615);
        const V t616 = t554 + t555;
        io.out(20, t616);
        const V t617 = t554 - t555;
        io.out(32, t617);
        const V t618 = t510 - t511;
        io.out(21, t618);
        const V t619 = t510 + t511;
        io.out(31, t619);
        const V t620 = t492 + t493;
        io.out(22, t620);
        const V t621 = t492 - t493;
        io.out(30, t621);
        const V t622 = t542 + t543;
        io.out(23, t622);
        const V t623 = t542 - t543;
        io.out(29, t623);
        const V t624 = t570 - t571;
        io.out(24, t624);
        const V t625 = t570 + t571;
        io.out(28, t625);
        const V t626 = t526 - t527;
        io.out(25, t626);
        const V t627 = t526 + t527;
        io.out(27, t627);
    }
};

}  // namespace zulg
