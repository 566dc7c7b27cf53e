// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 39.
// Forward DFT of 39 real points, prime-factor 13, 3.
// 155 additions, 155 subtractions, 149 multiplications (188 with `scale`); 11 outputs negated; 16 constants; 41 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<39> {
    static constexpr int steps = 498;  // with `scale`
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.2869425954512852,  // c[2]: -Q[1] of 13
        0.5279915321544383,  // c[3]: -P[1] of 13
        0.29376443202296976,  // c[4]: Q[2] of 13
        0.5242266395265821,  // c[5]: -P[2] of 13
        0.1741386011521359,  // c[6]: -Q[3] of 13
        0.5751407294740031,  // c[7]: P[3] of 13
        0.42218506973345193,  // c[8]: -Q[4] of 13
        0.42763404682657274,  // c[9]: P[4] of 13
        0.5316276774946329,  // c[10]: -Q[5] of 13
        0.280148395734785,  // c[11]: P[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.4330127018922193,  // c[14]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[15]: sin 2 pi 1/3 times sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3
        const V x9 = io.in(9);
        const V x27 = io.in(27);
        const V t0 = x9 + x27;
        const V t1 = x9 - x27;
        const V x3 = io.in(3);
        const V t2 = t0 + x3;
        const V t3 = c[0] * t0;
        const V t4 = x3 - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x33 = io.in(33);
        const V x21 = io.in(21);
        const V t6 = x33 + x21;
        const V t7 = x33 - x21;
        const V x24 = io.in(24);
        const V t8 = t6 + x24;
        const V t9 = c[0] * t6;
        const V t10 = x24 - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x30 = io.in(30);
        const V x12 = io.in(12);
        const V t12 = x30 + x12;
        const V t13 = x30 - x12;
        const V x36 = io.in(36);
        const V t14 = t12 + x36;
        const V t15 = c[0] * t12;
        const V t16 = x36 - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V x6 = io.in(6);
        const V x18 = io.in(18);
        const V t18 = x6 + x18;
        const V t19 = x6 - x18;
        const V x15 = io.in(15);
        const V t20 = t18 + x15;
        const V t21 = c[0] * t18;
        const V t22 = x15 - t21;
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
        // real block of 13, multiplier 3
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
        const V t57 = t55 - t56;
        const V t58 = c[4] * t40;
        const V t59 = c[5] * t41;
        const V t60 = t59 + t58;
        const V t61 = c[6] * t27;
        const V t62 = c[7] * t25;
        const V t63 = t62 + t61;
        const V t64 = c[6] * t25;
        const V t65 = c[7] * t27;
        const V t66 = t65 - t64;
        const V t67 = c[8] * t39;
        const V t68 = c[9] * t38;
        const V t69 = t68 - t67;
        const V t70 = c[8] * t38;
        const V t71 = c[9] * t39;
        const V t72 = t71 + t70;
        const V t73 = c[10] * t43;
        const V t74 = c[11] * t42;
        const V t75 = t74 - t73;
        const V t76 = c[10] * t42;
        const V t77 = c[11] * t43;
        const V t78 = t77 + t76;
        const V t79 = c[13] * t29;
        // spectrum block of 2
        const V t80 = t48 + t79;
        const V t81 = t48 - t79;
        // complex block of 2
        const V t82 = t72 + t60;
        const V t83 = t69 + t57;
        const V t84 = t60 - t72;
        const V t85 = t69 - t57;
        // spectrum block of 3, multiplier 2
        const V t86 = t83 + t80;
        const V t87 = c[0] * t83;
        const V t88 = t80 - t87;
        const V t89 = c[1] * t82;
        const V t90 = t88 + t89;
        const V t91 = t88 - t89;
        // spectrum block of 3, multiplier 2
        const V t92 = t85 + t81;
        const V t93 = c[0] * t85;
        const V t94 = t81 - t93;
        const V t95 = c[1] * t84;
        const V t96 = t94 - t95;
        const V t97 = t94 + t95;
        // complex block of 2
        const V t98 = t75 - t51;
        const V t99 = t54 + t78;
        const V t100 = t51 + t75;
        const V t101 = t78 - t54;
        // mirrored skew block of 6
        const V t102 = c[0] * t100;
        const V t103 = c[1] * t101;
        const V t104 = t103 + t102;
        // spectrum block of 3, multiplier 2
        const V t105 = t66 - t99;
        const V t106 = c[0] * t99;
        const V t107 = t106 + t66;
        const V t108 = c[1] * t98;
        const V t109 = t107 + t108;
        const V t110 = t107 - t108;
        // spectrum block of 3, multiplier 2
        const V t111 = t104 + t63;
        const V t112 = c[0] * t104;
        const V t113 = t63 - t112;
        const V t114 = c[14] * t101;
        const V t115 = c[15] * t100;
        const V t116 = t114 - t115;
        const V t117 = t113 + t116;
        const V t118 = t113 - t116;
        // real block of 3
        const V x22 = io.in(22);
        const V x1 = io.in(1);
        const V t119 = x22 + x1;
        const V t120 = x22 - x1;
        const V x16 = io.in(16);
        const V t121 = t119 + x16;
        const V t122 = c[0] * t119;
        const V t123 = x16 - t122;
        const V t124 = c[1] * t120;
        // real block of 3
        const V x7 = io.in(7);
        const V x34 = io.in(34);
        const V t125 = x7 + x34;
        const V t126 = x7 - x34;
        const V x37 = io.in(37);
        const V t127 = t125 + x37;
        const V t128 = c[0] * t125;
        const V t129 = x37 - t128;
        const V t130 = c[1] * t126;
        // real block of 3
        const V x4 = io.in(4);
        const V x25 = io.in(25);
        const V t131 = x4 + x25;
        const V t132 = x4 - x25;
        const V x10 = io.in(10);
        const V t133 = t131 + x10;
        const V t134 = c[0] * t131;
        const V t135 = x10 - t134;
        const V t136 = c[1] * t132;
        // real block of 3
        const V x19 = io.in(19);
        const V x31 = io.in(31);
        const V t137 = x19 + x31;
        const V t138 = x19 - x31;
        const V x28 = io.in(28);
        const V t139 = t137 + x28;
        const V t140 = c[0] * t137;
        const V t141 = x28 - t140;
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
        // real block of 13, multiplier 3
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
        const V t176 = t174 - t175;
        const V t177 = c[4] * t159;
        const V t178 = c[5] * t160;
        const V t179 = t178 + t177;
        const V t180 = c[6] * t146;
        const V t181 = c[7] * t144;
        const V t182 = t181 + t180;
        const V t183 = c[6] * t144;
        const V t184 = c[7] * t146;
        const V t185 = t184 - t183;
        const V t186 = c[8] * t158;
        const V t187 = c[9] * t157;
        const V t188 = t187 - t186;
        const V t189 = c[8] * t157;
        const V t190 = c[9] * t158;
        const V t191 = t190 + t189;
        const V t192 = c[10] * t162;
        const V t193 = c[11] * t161;
        const V t194 = t193 - t192;
        const V t195 = c[10] * t161;
        const V t196 = c[11] * t162;
        const V t197 = t196 + t195;
        const V t198 = c[13] * t148;
        // spectrum block of 2
        const V t199 = t167 + t198;
        const V t200 = t167 - t198;
        // complex block of 2
        const V t201 = t191 + t179;
        const V t202 = t188 + t176;
        const V t203 = t179 - t191;
        const V t204 = t188 - t176;
        // spectrum block of 3, multiplier 2
        const V t205 = t202 + t199;
        const V t206 = c[0] * t202;
        const V t207 = t199 - t206;
        const V t208 = c[1] * t201;
        const V t209 = t207 + t208;
        const V t210 = t207 - t208;
        // spectrum block of 3, multiplier 2
        const V t211 = t204 + t200;
        const V t212 = c[0] * t204;
        const V t213 = t200 - t212;
        const V t214 = c[1] * t203;
        const V t215 = t213 - t214;
        const V t216 = t213 + t214;
        // complex block of 2
        const V t217 = t194 - t170;
        const V t218 = t173 + t197;
        const V t219 = t170 + t194;
        const V t220 = t197 - t173;
        // mirrored skew block of 6
        const V t221 = c[0] * t219;
        const V t222 = c[1] * t220;
        const V t223 = t222 + t221;
        // spectrum block of 3, multiplier 2
        const V t224 = t185 - t218;
        const V t225 = c[0] * t218;
        const V t226 = t225 + t185;
        const V t227 = c[1] * t217;
        const V t228 = t226 + t227;
        const V t229 = t226 - t227;
        // spectrum block of 3, multiplier 2
        const V t230 = t223 + t182;
        const V t231 = c[0] * t223;
        const V t232 = t182 - t231;
        const V t233 = c[14] * t220;
        const V t234 = c[15] * t219;
        const V t235 = t233 - t234;
        const V t236 = t232 + t235;
        const V t237 = t232 - t235;
        // real block of 3
        const V x35 = io.in(35);
        const V x14 = io.in(14);
        const V t238 = x35 + x14;
        const V t239 = x35 - x14;
        const V x29 = io.in(29);
        const V t240 = t238 + x29;
        const V t241 = c[0] * t238;
        const V t242 = x29 - t241;
        const V t243 = c[1] * t239;
        // real block of 3
        const V x20 = io.in(20);
        const V x8 = io.in(8);
        const V t244 = x20 + x8;
        const V t245 = x20 - x8;
        const V x11 = io.in(11);
        const V t246 = t244 + x11;
        const V t247 = c[0] * t244;
        const V t248 = x11 - t247;
        const V t249 = c[1] * t245;
        // real block of 3
        const V x17 = io.in(17);
        const V x38 = io.in(38);
        const V t250 = x17 + x38;
        const V t251 = x17 - x38;
        const V x23 = io.in(23);
        const V t252 = t250 + x23;
        const V t253 = c[0] * t250;
        const V t254 = x23 - t253;
        const V t255 = c[1] * t251;
        // real block of 3
        const V x32 = io.in(32);
        const V x5 = io.in(5);
        const V t256 = x32 + x5;
        const V t257 = x32 - x5;
        const V x2 = io.in(2);
        const V t258 = t256 + x2;
        const V t259 = c[0] * t256;
        const V t260 = x2 - t259;
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
        // real block of 13, multiplier 3
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
        const V t295 = t293 - t294;
        const V t296 = c[4] * t278;
        const V t297 = c[5] * t279;
        const V t298 = t297 + t296;
        const V t299 = c[6] * t265;
        const V t300 = c[7] * t263;
        const V t301 = t300 + t299;
        const V t302 = c[6] * t263;
        const V t303 = c[7] * t265;
        const V t304 = t303 - t302;
        const V t305 = c[8] * t277;
        const V t306 = c[9] * t276;
        const V t307 = t306 - t305;
        const V t308 = c[8] * t276;
        const V t309 = c[9] * t277;
        const V t310 = t309 + t308;
        const V t311 = c[10] * t281;
        const V t312 = c[11] * t280;
        const V t313 = t312 - t311;
        const V t314 = c[10] * t280;
        const V t315 = c[11] * t281;
        const V t316 = t315 + t314;
        const V t317 = c[13] * t267;
        // spectrum block of 2
        const V t318 = t286 + t317;
        const V t319 = t286 - t317;
        // complex block of 2
        const V t320 = t310 + t298;
        const V t321 = t307 + t295;
        const V t322 = t298 - t310;
        const V t323 = t307 - t295;
        // spectrum block of 3, multiplier 2
        const V t324 = t321 + t318;
        const V t325 = c[0] * t321;
        const V t326 = t318 - t325;
        const V t327 = c[1] * t320;
        const V t328 = t326 + t327;
        const V t329 = t326 - t327;
        // spectrum block of 3, multiplier 2
        const V t330 = t323 + t319;
        const V t331 = c[0] * t323;
        const V t332 = t319 - t331;
        const V t333 = c[1] * t322;
        const V t334 = t332 - t333;
        const V t335 = t332 + t333;
        // complex block of 2
        const V t336 = t313 - t289;
        const V t337 = t292 + t316;
        const V t338 = t289 + t313;
        const V t339 = t316 - t292;
        // mirrored skew block of 6
        const V t340 = c[0] * t338;
        const V t341 = c[1] * t339;
        const V t342 = t341 + t340;
        // spectrum block of 3, multiplier 2
        const V t343 = t304 - t337;
        const V t344 = c[0] * t337;
        const V t345 = t344 + t304;
        const V t346 = c[1] * t336;
        const V t347 = t345 + t346;
        const V t348 = t345 - t346;
        // spectrum block of 3, multiplier 2
        const V t349 = t342 + t301;
        const V t350 = c[0] * t342;
        const V t351 = t301 - t350;
        const V t352 = c[14] * t339;
        const V t353 = c[15] * t338;
        const V t354 = t352 - t353;
        const V t355 = t351 + t354;
        const V t356 = t351 - t354;
        // real block of 3
        const V t357 = t165 + t284;
        const V t358 = t284 - t165;
        const V t359 = t357 + t46;
        io.re(0, t359);
        const V t360 = c[0] * t357;
        const V t361 = t46 - t360;
        io.re(13, t361);
        const V t362 = c[1] * t358;
        io.im(13, t362);
        // complex block of 3
        const V t363 = t205 + t324;
        const V t364 = t224 + t343;
        const V t365 = t205 - t324;
        const V t366 = t224 - t343;
        const V t367 = t363 + t86;
        io.re(3, t367);
        const V t368 = t364 + t105;
        io.im(3, t368);
        const V t369 = c[0] * t363;
        const V t370 = t86 - t369;
        const V t371 = c[0] * t364;
        const V t372 = t105 - t371;
        const V t373 = c[1] * t365;
        const V t374 = c[1] * t366;
        const V t375 = t370 + t374;
        io.re(16, t375);
        const V t376 = t372 - t373;
        io.im(16, t376);
        const V t377 = t370 - t374;
        io.re(10, t377);
        const V t378 = t372 + t373;
        io.minusIm(10, t378);
        // complex block of 3
        const V t379 = t216 + t335;
        const V t380 = t237 + t356;
        const V t381 = t216 - t335;
        const V t382 = t356 - t237;
        const V t383 = t379 + t97;
        io.re(6, t383);
        const V t384 = t380 + t118;
        io.minusIm(6, t384);
        const V t385 = c[0] * t379;
        const V t386 = t97 - t385;
        const V t387 = c[0] * t380;
        const V t388 = t387 - t118;
        const V t389 = c[1] * t381;
        const V t390 = c[1] * t382;
        const V t391 = t386 + t390;
        io.re(19, t391);
        const V t392 = t388 - t389;
        io.im(19, t392);
        const V t393 = t386 - t390;
        io.re(7, t393);
        const V t394 = t388 + t389;
        io.minusIm(7, t394);
        // complex block of 3
        const V t395 = t210 + t329;
        const V t396 = t228 + t347;
        const V t397 = t210 - t329;
        const V t398 = t228 - t347;
        const V t399 = t395 + t91;
        io.re(9, t399);
        const V t400 = t396 + t109;
        io.im(9, t400);
        const V t401 = c[0] * t395;
        const V t402 = t91 - t401;
        const V t403 = c[0] * t396;
        const V t404 = t403 - t109;
        const V t405 = c[1] * t397;
        const V t406 = c[1] * t398;
        const V t407 = t402 + t406;
        io.re(17, t407);
        const V t408 = t404 + t405;
        io.im(17, t408);
        const V t409 = t402 - t406;
        io.re(4, t409);
        const V t410 = t405 - t404;
        io.minusIm(4, t410);
        // complex block of 3
        const V t411 = t209 + t328;
        const V t412 = t229 + t348;
        const V t413 = t209 - t328;
        const V t414 = t348 - t229;
        const V t415 = t411 + t90;
        io.re(12, t415);
        const V t416 = t412 + t110;
        io.minusIm(12, t416);
        const V t417 = c[0] * t411;
        const V t418 = t90 - t417;
        const V t419 = c[0] * t412;
        const V t420 = t419 - t110;
        const V t421 = c[1] * t413;
        const V t422 = c[1] * t414;
        const V t423 = t418 + t422;
        io.re(14, t423);
        const V t424 = t420 - t421;
        io.minusIm(14, t424);
        const V t425 = t418 - t422;
        io.re(1, t425);
        const V t426 = t420 + t421;
        io.minusIm(1, t426);
        // complex block of 3
        const V t427 = t211 + t330;
        const V t428 = t236 + t355;
        const V t429 = t211 - t330;
        const V t430 = t355 - t236;
        const V t431 = t427 + t92;
        io.re(15, t431);
        const V t432 = t428 + t117;
        io.minusIm(15, t432);
        const V t433 = c[0] * t427;
        const V t434 = t92 - t433;
        const V t435 = c[0] * t428;
        const V t436 = t435 - t117;
        const V t437 = c[1] * t429;
        const V t438 = c[1] * t430;
        const V t439 = t434 + t438;
        io.re(11, t439);
        const V t440 = t436 - t437;
        io.minusIm(11, t440);
        const V t441 = t434 - t438;
        io.re(2, t441);
        const V t442 = t436 + t437;
        io.im(2, t442);
        // complex block of 3
        const V t443 = t215 + t334;
        const V t444 = t230 + t349;
        const V t445 = t215 - t334;
        const V t446 = t349 - t230;
        const V t447 = t443 + t96;
        io.re(18, t447);
        const V t448 = t444 + t111;
        io.minusIm(18, t448);
        const V t449 = c[0] * t443;
        const V t450 = t96 - t449;
        const V t451 = c[0] * t444;
        const V t452 = t451 - t111;
        const V t453 = c[1] * t445;
        const V t454 = c[1] * t446;
        const V t455 = t450 + t454;
        io.re(8, t455);
        const V t456 = t452 - t453;
        io.minusIm(8, t456);
        const V t457 = t450 - t454;
        io.re(5, t457);
        const V t458 = t452 + t453;
        io.im(5, t458);
    }
};

}  // namespace zulg
