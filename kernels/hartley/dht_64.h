// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 64.
// Hartley transform of 64 points, form I.
// 231 additions, 231 subtractions, 134 multiplications (198 with `scale`); 15 constants; 66 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<64> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: -sin 2 pi 15/16
        0.9238795325112867,  // c[1]: cos 2 pi 15/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.19509032201612828,  // c[3]: -sin 2 pi 62/64
        0.9807852804032304,  // c[4]: cos 2 pi 62/64
        0.5555702330196022,  // c[5]: -sin 2 pi 58/64
        0.8314696123025452,  // c[6]: cos 2 pi 58/64
        0.0980171403295606,  // c[7]: -sin 2 pi 63/64
        0.9951847266721969,  // c[8]: cos 2 pi 63/64
        0.2902846772544624,  // c[9]: -sin 2 pi 61/64
        0.9569403357322088,  // c[10]: cos 2 pi 61/64
        0.47139673682599764,  // c[11]: -sin 2 pi 59/64
        0.881921264348355,  // c[12]: cos 2 pi 59/64
        0.6343932841636455,  // c[13]: -sin 2 pi 57/64
        0.773010453362737,  // c[14]: cos 2 pi 57/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x63 = io.in(63);
        const V t0 = x1 + x63;
        const V t1 = x1 - x63;
        const V x2 = io.in(2);
        const V x62 = io.in(62);
        const V t2 = x2 + x62;
        const V t3 = x2 - x62;
        const V x3 = io.in(3);
        const V x61 = io.in(61);
        const V t4 = x3 + x61;
        const V t5 = x3 - x61;
        const V x4 = io.in(4);
        const V x60 = io.in(60);
        const V t6 = x4 + x60;
        const V t7 = x4 - x60;
        const V x5 = io.in(5);
        const V x59 = io.in(59);
        const V t8 = x5 + x59;
        const V t9 = x5 - x59;
        const V x6 = io.in(6);
        const V x58 = io.in(58);
        const V t10 = x6 + x58;
        const V t11 = x6 - x58;
        const V x7 = io.in(7);
        const V x57 = io.in(57);
        const V t12 = x7 + x57;
        const V t13 = x7 - x57;
        const V x8 = io.in(8);
        const V x56 = io.in(56);
        const V t14 = x8 + x56;
        const V t15 = x8 - x56;
        const V x9 = io.in(9);
        const V x55 = io.in(55);
        const V t16 = x9 + x55;
        const V t17 = x9 - x55;
        const V x10 = io.in(10);
        const V x54 = io.in(54);
        const V t18 = x10 + x54;
        const V t19 = x10 - x54;
        const V x11 = io.in(11);
        const V x53 = io.in(53);
        const V t20 = x11 + x53;
        const V t21 = x11 - x53;
        const V x12 = io.in(12);
        const V x52 = io.in(52);
        const V t22 = x12 + x52;
        const V t23 = x12 - x52;
        const V x13 = io.in(13);
        const V x51 = io.in(51);
        const V t24 = x13 + x51;
        const V t25 = x13 - x51;
        const V x14 = io.in(14);
        const V x50 = io.in(50);
        const V t26 = x14 + x50;
        const V t27 = x14 - x50;
        const V x15 = io.in(15);
        const V x49 = io.in(49);
        const V t28 = x15 + x49;
        const V t29 = x15 - x49;
        const V x16 = io.in(16);
        const V x48 = io.in(48);
        const V t30 = x16 + x48;
        const V t31 = x16 - x48;
        const V x17 = io.in(17);
        const V x47 = io.in(47);
        const V t32 = x17 + x47;
        const V t33 = x17 - x47;
        const V x18 = io.in(18);
        const V x46 = io.in(46);
        const V t34 = x18 + x46;
        const V t35 = x18 - x46;
        const V x19 = io.in(19);
        const V x45 = io.in(45);
        const V t36 = x19 + x45;
        const V t37 = x19 - x45;
        const V x20 = io.in(20);
        const V x44 = io.in(44);
        const V t38 = x20 + x44;
        const V t39 = x20 - x44;
        const V x21 = io.in(21);
        const V x43 = io.in(43);
        const V t40 = x21 + x43;
        const V t41 = x21 - x43;
        const V x22 = io.in(22);
        const V x42 = io.in(42);
        const V t42 = x22 + x42;
        const V t43 = x22 - x42;
        const V x23 = io.in(23);
        const V x41 = io.in(41);
        const V t44 = x23 + x41;
        const V t45 = x23 - x41;
        const V x24 = io.in(24);
        const V x40 = io.in(40);
        const V t46 = x24 + x40;
        const V t47 = x24 - x40;
        const V x25 = io.in(25);
        const V x39 = io.in(39);
        const V t48 = x25 + x39;
        const V t49 = x25 - x39;
        const V x26 = io.in(26);
        const V x38 = io.in(38);
        const V t50 = x26 + x38;
        const V t51 = x26 - x38;
        const V x27 = io.in(27);
        const V x37 = io.in(37);
        const V t52 = x27 + x37;
        const V t53 = x27 - x37;
        const V x28 = io.in(28);
        const V x36 = io.in(36);
        const V t54 = x28 + x36;
        const V t55 = x28 - x36;
        const V x29 = io.in(29);
        const V x35 = io.in(35);
        const V t56 = x29 + x35;
        const V t57 = x29 - x35;
        const V x30 = io.in(30);
        const V x34 = io.in(34);
        const V t58 = x30 + x34;
        const V t59 = x30 - x34;
        const V x31 = io.in(31);
        const V x33 = io.in(33);
        const V t60 = x31 + x33;
        const V t61 = x31 - x33;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x32 = io.in(32);
        const V t62 = x0 + x32;
        const V t63 = x0 - x32;
        // spectrum block of 2
        const V t64 = t62 + t30;
        const V t65 = t62 - t30;
        // spectrum block of 2
        const V t66 = t63 - t31;
        const V t67 = t63 + t31;
        // complex block of 2
        const V t68 = t7 - t55;
        const V t69 = t6 + t54;
        const V t70 = t7 + t55;
        const V t71 = t6 - t54;
        // complex block of 2
        const V t72 = t39 - t23;
        const V t73 = t38 + t22;
        const V t74 = t39 + t23;
        const V t75 = t38 - t22;
        // complex block of 2
        const V t76 = t68 + t72;
        const V t77 = t69 + t73;
        const V t78 = t68 - t72;
        const V t79 = t69 - t73;
        // complex block of 2
        const V t80 = t70 + t75;
        const V t81 = t71 - t74;
        const V t82 = t70 - t75;
        const V t83 = t71 + t74;
        // spectrum block of 16
        const V t84 = c[0] * t80;
        const V t85 = c[1] * t81;
        const V t86 = t85 - t84;
        const V t87 = c[0] * t81;
        const V t88 = c[1] * t80;
        const V t89 = t88 + t87;
        const V t90 = t79 + t78;
        const V t91 = t78 - t79;
        const V t92 = c[2] * t90;
        const V t93 = c[2] * t91;
        const V t94 = c[1] * t82;
        const V t95 = c[0] * t83;
        const V t96 = t95 - t94;
        const V t97 = c[1] * t83;
        const V t98 = c[0] * t82;
        const V t99 = t98 + t97;
        // mirrored skew block of 4
        const V t100 = t14 - t46;
        const V t101 = c[2] * t100;
        const V t102 = t15 + t47;
        const V t103 = c[2] * t102;
        const V t104 = t14 + t46;
        const V t105 = t101 - t103;
        const V t106 = t15 - t47;
        const V t107 = t101 + t103;
        // spectrum block of 2
        const V t108 = t64 + t104;
        const V t109 = t64 - t104;
        // spectrum block of 2
        const V t110 = t108 + t77;
        const V t111 = t108 - t77;
        // spectrum block of 2
        const V t112 = t109 - t76;
        const V t113 = t109 + t76;
        // spectrum block of 2
        const V t114 = t66 + t105;
        const V t115 = t66 - t105;
        // spectrum block of 2
        const V t116 = t114 + t86;
        const V t117 = t114 - t86;
        // spectrum block of 2
        const V t118 = t115 - t89;
        const V t119 = t115 + t89;
        // spectrum block of 2
        const V t120 = t65 - t106;
        const V t121 = t65 + t106;
        // spectrum block of 2
        const V t122 = t120 - t93;
        const V t123 = t120 + t93;
        // spectrum block of 2
        const V t124 = t121 - t92;
        const V t125 = t121 + t92;
        // spectrum block of 2
        const V t126 = t67 - t107;
        const V t127 = t67 + t107;
        // spectrum block of 2
        const V t128 = t126 + t96;
        const V t129 = t126 - t96;
        // spectrum block of 2
        const V t130 = t127 - t99;
        const V t131 = t127 + t99;
        // complex block of 2
        const V t132 = t1 - t61;
        const V t133 = t0 + t60;
        const V t134 = t1 + t61;
        const V t135 = t0 - t60;
        // complex block of 2
        const V t136 = t9 - t53;
        const V t137 = t8 + t52;
        const V t138 = t9 + t53;
        const V t139 = t8 - t52;
        // complex block of 2
        const V t140 = t17 - t45;
        const V t141 = t16 + t44;
        const V t142 = t17 + t45;
        const V t143 = t16 - t44;
        // complex block of 2
        const V t144 = t25 - t37;
        const V t145 = t24 + t36;
        const V t146 = t25 + t37;
        const V t147 = t24 - t36;
        // complex block of 2
        const V t148 = t33 - t29;
        const V t149 = t32 + t28;
        const V t150 = t33 + t29;
        const V t151 = t32 - t28;
        // complex block of 2
        const V t152 = t41 - t21;
        const V t153 = t40 + t20;
        const V t154 = t41 + t21;
        const V t155 = t40 - t20;
        // complex block of 2
        const V t156 = t49 - t13;
        const V t157 = t48 + t12;
        const V t158 = t49 + t13;
        const V t159 = t48 - t12;
        // complex block of 2
        const V t160 = t57 - t5;
        const V t161 = t56 + t4;
        const V t162 = t57 + t5;
        const V t163 = t56 - t4;
        // complex block of 2
        const V t164 = t132 + t148;
        const V t165 = t133 + t149;
        const V t166 = t132 - t148;
        const V t167 = t133 - t149;
        // complex block of 2
        const V t168 = t136 + t152;
        const V t169 = t137 + t153;
        const V t170 = t136 - t152;
        const V t171 = t137 - t153;
        // complex block of 2
        const V t172 = t140 + t156;
        const V t173 = t141 + t157;
        const V t174 = t140 - t156;
        const V t175 = t141 - t157;
        // complex block of 2
        const V t176 = t144 + t160;
        const V t177 = t145 + t161;
        const V t178 = t144 - t160;
        const V t179 = t145 - t161;
        // complex block of 2
        const V t180 = t164 + t172;
        const V t181 = t165 + t173;
        const V t182 = t164 - t172;
        const V t183 = t165 - t173;
        // complex block of 2
        const V t184 = t168 + t176;
        const V t185 = t169 + t177;
        const V t186 = t168 - t176;
        const V t187 = t169 - t177;
        // complex block of 2
        const V t188 = t180 + t184;
        const V t189 = t181 + t185;
        const V t190 = t180 - t184;
        const V t191 = t181 - t185;
        // complex block of 2
        const V t192 = t182 + t187;
        const V t193 = t183 - t186;
        const V t194 = t182 - t187;
        const V t195 = t183 + t186;
        // complex block of 8
        const V t196 = c[2] * t170;
        const V t197 = c[2] * t171;
        const V t198 = t196 + t197;
        const V t199 = t197 - t196;
        const V t200 = c[2] * t178;
        const V t201 = c[2] * t179;
        const V t202 = t200 + t201;
        const V t203 = t201 - t200;
        // complex block of 2
        const V t204 = t166 + t175;
        const V t205 = t167 - t174;
        const V t206 = t166 - t175;
        const V t207 = t167 + t174;
        // complex block of 2
        const V t208 = t198 + t203;
        const V t209 = t199 - t202;
        const V t210 = t198 - t203;
        const V t211 = t199 + t202;
        // complex block of 2
        const V t212 = t204 + t208;
        const V t213 = t205 + t209;
        const V t214 = t204 - t208;
        const V t215 = t205 - t209;
        // complex block of 2
        const V t216 = t206 + t211;
        const V t217 = t207 - t210;
        const V t218 = t206 - t211;
        const V t219 = t207 + t210;
        // complex block of 16
        const V t220 = c[0] * t139;
        const V t221 = c[1] * t138;
        const V t222 = t221 + t220;
        const V t223 = c[0] * t138;
        const V t224 = c[1] * t139;
        const V t225 = t224 - t223;
        const V t226 = c[2] * t142;
        const V t227 = c[2] * t143;
        const V t228 = t226 + t227;
        const V t229 = t227 - t226;
        const V t230 = c[1] * t147;
        const V t231 = c[0] * t146;
        const V t232 = t231 + t230;
        const V t233 = c[1] * t146;
        const V t234 = c[0] * t147;
        const V t235 = t234 - t233;
        const V t236 = c[1] * t155;
        const V t237 = c[0] * t154;
        const V t238 = t236 - t237;
        const V t239 = c[1] * t154;
        const V t240 = c[0] * t155;
        const V t241 = t240 + t239;
        const V t242 = c[2] * t158;
        const V t243 = c[2] * t159;
        const V t244 = t242 + t243;
        const V t245 = t243 - t242;
        const V t246 = c[0] * t163;
        const V t247 = c[1] * t162;
        const V t248 = t246 - t247;
        const V t249 = c[0] * t162;
        const V t250 = c[1] * t163;
        const V t251 = t250 + t249;
        // complex block of 2
        const V t252 = t134 + t151;
        const V t253 = t135 - t150;
        const V t254 = t134 - t151;
        const V t255 = t135 + t150;
        // complex block of 2
        const V t256 = t222 + t238;
        const V t257 = t225 - t241;
        const V t258 = t222 - t238;
        const V t259 = t225 + t241;
        // complex block of 2
        const V t260 = t228 + t245;
        const V t261 = t229 - t244;
        const V t262 = t228 - t245;
        const V t263 = t229 + t244;
        // complex block of 2
        const V t264 = t232 + t248;
        const V t265 = t235 - t251;
        const V t266 = t232 - t248;
        const V t267 = t235 + t251;
        // complex block of 2
        const V t268 = t252 + t260;
        const V t269 = t253 + t261;
        const V t270 = t252 - t260;
        const V t271 = t253 - t261;
        // complex block of 2
        const V t272 = t256 + t264;
        const V t273 = t257 + t265;
        const V t274 = t256 - t264;
        const V t275 = t257 - t265;
        // complex block of 2
        const V t276 = t268 + t272;
        const V t277 = t269 + t273;
        const V t278 = t268 - t272;
        const V t279 = t269 - t273;
        // complex block of 2
        const V t280 = t270 + t275;
        const V t281 = t271 - t274;
        const V t282 = t270 - t275;
        const V t283 = t271 + t274;
        // complex block of 8
        const V t284 = c[2] * t258;
        const V t285 = c[2] * t259;
        const V t286 = t284 + t285;
        const V t287 = t285 - t284;
        const V t288 = c[2] * t266;
        const V t289 = c[2] * t267;
        const V t290 = t288 + t289;
        const V t291 = t289 - t288;
        // complex block of 2
        const V t292 = t254 + t263;
        const V t293 = t255 - t262;
        const V t294 = t254 - t263;
        const V t295 = t255 + t262;
        // complex block of 2
        const V t296 = t286 + t291;
        const V t297 = t287 - t290;
        const V t298 = t286 - t291;
        const V t299 = t287 + t290;
        // complex block of 2
        const V t300 = t292 + t296;
        const V t301 = t293 + t297;
        const V t302 = t292 - t296;
        const V t303 = t293 - t297;
        // complex block of 2
        const V t304 = t294 + t299;
        const V t305 = t295 - t298;
        const V t306 = t294 - t299;
        const V t307 = t295 + t298;
        // spectrum block of 64
        const V t308 = c[7] * t276;
        const V t309 = c[8] * t277;
        const V t310 = t309 - t308;
        const V t311 = c[7] * t277;
        const V t312 = c[8] * t276;
        const V t313 = t312 + t311;
        const V t314 = c[3] * t212;
        const V t315 = c[4] * t213;
        const V t316 = t315 - t314;
        const V t317 = c[3] * t213;
        const V t318 = c[4] * t212;
        const V t319 = t318 + t317;
        const V t320 = c[9] * t300;
        const V t321 = c[10] * t301;
        const V t322 = t321 - t320;
        const V t323 = c[9] * t301;
        const V t324 = c[10] * t300;
        const V t325 = t324 + t323;
        const V t326 = c[0] * t192;
        const V t327 = c[1] * t193;
        const V t328 = t327 - t326;
        const V t329 = c[0] * t193;
        const V t330 = c[1] * t192;
        const V t331 = t330 + t329;
        const V t332 = c[11] * t280;
        const V t333 = c[12] * t281;
        const V t334 = t333 - t332;
        const V t335 = c[11] * t281;
        const V t336 = c[12] * t280;
        const V t337 = t336 + t335;
        const V t338 = c[5] * t216;
        const V t339 = c[6] * t217;
        const V t340 = t339 - t338;
        const V t341 = c[5] * t217;
        const V t342 = c[6] * t216;
        const V t343 = t342 + t341;
        const V t344 = c[13] * t304;
        const V t345 = c[14] * t305;
        const V t346 = t345 - t344;
        const V t347 = c[13] * t305;
        const V t348 = c[14] * t304;
        const V t349 = t348 + t347;
        const V t350 = t191 + t190;
        const V t351 = t190 - t191;
        const V t352 = c[2] * t350;
        const V t353 = c[2] * t351;
        const V t354 = c[14] * t278;
        const V t355 = c[13] * t279;
        const V t356 = t355 - t354;
        const V t357 = c[14] * t279;
        const V t358 = c[13] * t278;
        const V t359 = t358 + t357;
        const V t360 = c[6] * t214;
        const V t361 = c[5] * t215;
        const V t362 = t361 - t360;
        const V t363 = c[6] * t215;
        const V t364 = c[5] * t214;
        const V t365 = t364 + t363;
        const V t366 = c[12] * t302;
        const V t367 = c[11] * t303;
        const V t368 = t367 - t366;
        const V t369 = c[12] * t303;
        const V t370 = c[11] * t302;
        const V t371 = t370 + t369;
        const V t372 = c[1] * t194;
        const V t373 = c[0] * t195;
        const V t374 = t373 - t372;
        const V t375 = c[1] * t195;
        const V t376 = c[0] * t194;
        const V t377 = t376 + t375;
        const V t378 = c[10] * t282;
        const V t379 = c[9] * t283;
        const V t380 = t379 - t378;
        const V t381 = c[10] * t283;
        const V t382 = c[9] * t282;
        const V t383 = t382 + t381;
        const V t384 = c[4] * t218;
        const V t385 = c[3] * t219;
        const V t386 = t385 - t384;
        const V t387 = c[4] * t219;
        const V t388 = c[3] * t218;
        const V t389 = t388 + t387;
        const V t390 = c[8] * t306;
        const V t391 = c[7] * t307;
        const V t392 = t391 - t390;
        const V t393 = c[8] * t307;
        const V t394 = c[7] * t306;
        const V t395 = t394 + t393;
        // complex block of 2
        const V t396 = t3 - t59;
        const V t397 = t2 + t58;
        const V t398 = t3 + t59;
        const V t399 = t2 - t58;
        // mirrored skew block of 16
        const V t400 = c[3] * t398;
        const V t401 = c[4] * t399;
        const V t402 = t401 - t400;
        const V t403 = c[3] * t399;
        const V t404 = c[4] * t398;
        const V t405 = t404 + t403;
        // complex block of 2
        const V t406 = t11 - t51;
        const V t407 = t10 + t50;
        const V t408 = t11 + t51;
        const V t409 = t10 - t50;
        // mirrored skew block of 16
        const V t410 = c[5] * t408;
        const V t411 = c[6] * t409;
        const V t412 = t411 - t410;
        const V t413 = c[5] * t409;
        const V t414 = c[6] * t408;
        const V t415 = t414 + t413;
        // complex block of 2
        const V t416 = t19 - t43;
        const V t417 = t18 + t42;
        const V t418 = t19 + t43;
        const V t419 = t18 - t42;
        // mirrored skew block of 16
        const V t420 = c[6] * t418;
        const V t421 = c[5] * t419;
        const V t422 = t421 - t420;
        const V t423 = c[6] * t419;
        const V t424 = c[5] * t418;
        const V t425 = t424 + t423;
        // complex block of 2
        const V t426 = t27 - t35;
        const V t427 = t26 + t34;
        const V t428 = t27 + t35;
        const V t429 = t26 - t34;
        // mirrored skew block of 16
        const V t430 = c[4] * t428;
        const V t431 = c[3] * t429;
        const V t432 = t431 - t430;
        const V t433 = c[4] * t429;
        const V t434 = c[3] * t428;
        const V t435 = t434 + t433;
        // complex block of 2
        const V t436 = t396 - t426;
        const V t437 = t397 + t427;
        const V t438 = t396 + t426;
        const V t439 = t397 - t427;
        // complex block of 2
        const V t440 = t416 - t406;
        const V t441 = t417 + t407;
        const V t442 = t416 + t406;
        const V t443 = t417 - t407;
        // complex block of 2
        const V t444 = t436 + t440;
        const V t445 = t437 + t441;
        const V t446 = t436 - t440;
        const V t447 = t437 - t441;
        // complex block of 2
        const V t448 = t438 + t443;
        const V t449 = t439 - t442;
        const V t450 = t438 - t443;
        const V t451 = t439 + t442;
        // mirrored skew block of 8
        const V t452 = c[0] * t448;
        const V t453 = c[1] * t449;
        const V t454 = t453 - t452;
        const V t455 = c[0] * t449;
        const V t456 = c[1] * t448;
        const V t457 = t456 + t455;
        const V t458 = c[2] * t447;
        const V t459 = c[2] * t446;
        const V t460 = t458 + t459;
        const V t461 = t459 - t458;
        const V t462 = c[1] * t450;
        const V t463 = c[0] * t451;
        const V t464 = t463 - t462;
        const V t465 = c[1] * t451;
        const V t466 = c[0] * t450;
        const V t467 = t466 + t465;
        // complex block of 2
        const V t468 = t405 - t435;
        const V t469 = t402 + t432;
        const V t470 = t405 + t435;
        const V t471 = t402 - t432;
        // complex block of 2
        const V t472 = t425 - t415;
        const V t473 = t422 + t412;
        const V t474 = t425 + t415;
        const V t475 = t422 - t412;
        // complex block of 2
        const V t476 = t468 + t472;
        const V t477 = t469 + t473;
        const V t478 = t468 - t472;
        const V t479 = t469 - t473;
        // complex block of 2
        const V t480 = t470 + t475;
        const V t481 = t471 - t474;
        const V t482 = t470 - t475;
        const V t483 = t471 + t474;
        // mirrored skew block of 8
        const V t484 = c[0] * t480;
        const V t485 = c[1] * t481;
        const V t486 = t485 - t484;
        const V t487 = c[0] * t481;
        const V t488 = c[1] * t480;
        const V t489 = t488 + t487;
        const V t490 = c[2] * t479;
        const V t491 = c[2] * t478;
        const V t492 = t490 + t491;
        const V t493 = t491 - t490;
        const V t494 = c[1] * t482;
        const V t495 = c[0] * t483;
        const V t496 = t495 - t494;
        const V t497 = c[1] * t483;
        const V t498 = c[0] * t482;
        const V t499 = t498 + t497;
        // spectrum block of 2
        const V t500 = t110 + t445;
        const V t501 = t110 - t445;
        // spectrum block of 2
        const V t502 = t500 + t189;
        io.out(0, t502);
        const V t503 = t500 - t189;
        io.out(32, t503);
        // spectrum block of 2
        const V t504 = t501 - t188;
        io.out(48, t504);
        const V t505 = t501 + t188;
        io.out(16, t505);
        // spectrum block of 2
        const V t506 = t116 + t477;
        const V t507 = t116 - t477;
        // spectrum block of 2
        const V t508 = t506 + t310;
        io.out(63, t508);
        const V t509 = t506 - t310;
        io.out(31, t509);
        // spectrum block of 2
        const V t510 = t507 - t313;
        io.out(47, t510);
        const V t511 = t507 + t313;
        io.out(15, t511);
        // spectrum block of 2
        const V t512 = t122 + t454;
        const V t513 = t122 - t454;
        // spectrum block of 2
        const V t514 = t512 + t316;
        io.out(62, t514);
        const V t515 = t512 - t316;
        io.out(30, t515);
        // spectrum block of 2
        const V t516 = t513 - t319;
        io.out(46, t516);
        const V t517 = t513 + t319;
        io.out(14, t517);
        // spectrum block of 2
        const V t518 = t128 + t486;
        const V t519 = t128 - t486;
        // spectrum block of 2
        const V t520 = t518 + t322;
        io.out(61, t520);
        const V t521 = t518 - t322;
        io.out(29, t521);
        // spectrum block of 2
        const V t522 = t519 - t325;
        io.out(45, t522);
        const V t523 = t519 + t325;
        io.out(13, t523);
        // spectrum block of 2
        const V t524 = t112 - t461;
        const V t525 = t112 + t461;
        // spectrum block of 2
        const V t526 = t524 + t328;
        io.out(60, t526);
        const V t527 = t524 - t328;
        io.out(28, t527);
        // spectrum block of 2
        const V t528 = t525 - t331;
        io.out(44, t528);
        const V t529 = t525 + t331;
        io.out(12, t529);
        // spectrum block of 2
        const V t530 = t118 - t493;
        const V t531 = t118 + t493;
        // spectrum block of 2
        const V t532 = t530 + t334;
        io.out(59, t532);
        const V t533 = t530 - t334;
        io.out(27, t533);
        // spectrum block of 2
        const V t534 = t531 - t337;
        io.out(43, t534);
        const V t535 = t531 + t337;
        io.out(11, t535);
        // spectrum block of 2
        const V t536 = t124 + t464;
        const V t537 = t124 - t464;
        // spectrum block of 2
        const V t538 = t536 + t340;
        io.out(58, t538);
        const V t539 = t536 - t340;
        io.out(26, t539);
        // spectrum block of 2
        const V t540 = t537 - t343;
        io.out(42, t540);
        const V t541 = t537 + t343;
        io.out(10, t541);
        // spectrum block of 2
        const V t542 = t130 + t496;
        const V t543 = t130 - t496;
        // spectrum block of 2
        const V t544 = t542 + t346;
        io.out(57, t544);
        const V t545 = t542 - t346;
        io.out(25, t545);
        // spectrum block of 2
        const V t546 = t543 - t349;
        io.out(41, t546);
        const V t547 = t543 + t349;
        io.out(9, t547);
        // spectrum block of 2
        const V t548 = t111 - t444;
        const V t549 = t111 + t444;
        // spectrum block of 2
        const V t550 = t548 - t353;
        io.out(56, t550);
        const V t551 = t548 + t353;
        io.out(24, t551);
        // spectrum block of 2
        const V t552 = t549 - t352;
        io.out(40, t552);
        const V t553 = t549 + t352;
        io.out(8, t553);
        // spectrum block of 2
        const V t554 = t117 - t476;
        const V t555 = t117 + t476;
        // spectrum block of 2
        const V t556 = t554 + t356;
        io.out(55, t556);
        const V t557 = t554 - t356;
        io.out(23, t557);
        // spectrum block of 2
        const V t558 = t555 - t359;
        io.out(39, t558);
        const V t559 = t555 + t359;
        io.out(7, t559);
        // spectrum block of 2
        const V t560 = t123 - t457;
        const V t561 = t123 + t457;
        // spectrum block of 2
        const V t562 = t560 + t362;
        io.out(54, t562);
        const V t563 = t560 - t362;
        io.out(22, t563);
        // spectrum block of 2
        const V t564 = t561 - t365;
        io.out(38, t564);
        const V t565 = t561 + t365;
        io.out(6, t565);
        // spectrum block of 2
        const V t566 = t129 - t489;
        const V t567 = t129 + t489;
        // spectrum block of 2
        const V t568 = t566 + t368;
        io.out(53, t568);
        const V t569 = t566 - t368;
        io.out(21, t569);
        // spectrum block of 2
        const V t570 = t567 - t371;
        io.out(37, t570);
        const V t571 = t567 + t371;
        io.out(5, t571);
        // spectrum block of 2
        const V t572 = t113 - t460;
        const V t573 = t113 + t460;
        // spectrum block of 2
        const V t574 = t572 + t374;
        io.out(52, t574);
        const V t575 = t572 - t374;
        io.out(20, t575);
        // spectrum block of 2
        const V t576 = t573 - t377;
        io.out(36, t576);
        const V t577 = t573 + t377;
        io.out(4, t577);
        // spectrum block of 2
        const V t578 = t119 - t492;
        const V t579 = t119 + t492;
        // spectrum block of 2
        const V t580 = t578 + t380;
        io.out(51, t580);
        const V t581 = t578 - t380;
        io.out(19, t581);
        // spectrum block of 2
        const V t582 = t579 - t383;
        io.out(35, t582);
        const V t583 = t579 + t383;
        io.out(3, t583);
        // spectrum block of 2
        const V t584 = t125 - t467;
        const V t585 = t125 + t467;
        // spectrum block of 2
        const V t586 = t584 + t386;
        io.out(50, t586);
        const V t587 = t584 - t386;
        io.out(18, t587);
        // spectrum block of 2
        const V t588 = t585 - t389;
        io.out(34, t588);
        const V t589 = t585 + t389;
        io.out(2, t589);
        // spectrum block of 2
        const V t590 = t131 - t499;
        const V t591 = t131 + t499;
        // spectrum block of 2
        const V t592 = t590 + t392;
        io.out(49, t592);
        const V t593 = t590 - t392;
        io.out(17, t593);
        // spectrum block of 2
        const V t594 = t591 - t395;
        io.out(33, t594);
        const V t595 = t591 + t395;
        io.out(1, t595);
    }
};

}  // namespace zulg
