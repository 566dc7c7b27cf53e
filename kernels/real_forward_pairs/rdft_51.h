// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 51.
// Forward DFT of 51 real points, prime-factor 17, 3; two lanes to a register.
// 129 sums, 106 differences, 102 products of registers, which do the 695 steps of the graph, those with
// `scale` included; 85 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<51> {
    static constexpr int steps = 695;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.5,  // c[3]: -cos 2 pi 2/3
        0.8660254037844386,  // c[4]: -sin 2 pi 2/3
        0.4314031601143256,  // c[5]: -P[1] of 17
        0.281986371024157,  // c[6]: -Q[1] of 17
        0.023972509657154296,  // c[7]: P[2] of 17
        0.51483037864984,  // c[8]: -Q[2] of 17
        0.4407489637509731,  // c[9]: -P[3] of 17
        0.26714294104925057,  // c[10]: -Q[3] of 17
        0.40623178445333147,  // c[11]: P[4] of 17
        0.31717619283272513,  // c[12]: -Q[4] of 17
        0.508427430394848,  // c[13]: P[5] of 17
        0.08441888427414843,  // c[14]: -Q[5] of 17
        0.33572816326715627,  // c[15]: P[6] of 17
        0.39103912897466114,  // c[16]: -Q[6] of 17
        0.4440524091413236,  // c[17]: -P[7] of 17
        0.2616150950075063,  // c[18]: -Q[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x3_20 = io.in(3, 20);
        const P x48_14 = io.in(48, 14);
        // real block of 2
        const P t0 = x3_20 + x48_14;
        const P t1 = x3_20 - x48_14;
        const P x39_5 = io.in(39, 5);
        const P x12_29 = io.in(12, 29);
        // real block of 2
        const P t2 = x39_5 + x12_29;
        const P t3 = x39_5 - x12_29;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x9_26 = io.in(9, 26);
        const P x42_8 = io.in(42, 8);
        // real block of 2
        const P t6 = x9_26 + x42_8;
        const P t7 = x9_26 - x42_8;
        const P x15_32 = io.in(15, 32);
        const P x36_2 = io.in(36, 2);
        // real block of 2
        const P t8 = x15_32 + x36_2;
        const P t9 = x15_32 - x36_2;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x27_44 = io.in(27, 44);
        const P x24_41 = io.in(24, 41);
        // real block of 2
        const P t12 = x27_44 + x24_41;
        const P t13 = x27_44 - x24_41;
        const P x45_11 = io.in(45, 11);
        const P x6_23 = io.in(6, 23);
        // real block of 2
        const P t14 = x45_11 + x6_23;
        const P t15 = x45_11 - x6_23;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        const P x30_47 = io.in(30, 47);
        const P x21_38 = io.in(21, 38);
        // real block of 2
        const P t18 = x30_47 + x21_38;
        const P t19 = x30_47 - x21_38;
        const P x33_50 = io.in(33, 50);
        const P x18_35 = io.in(18, 35);
        // real block of 2
        const P t20 = x33_50 + x18_35;
        const P t21 = x33_50 - x18_35;
        // real block of 2
        const P t22 = t18 + t20;
        const P t23 = t18 - t20;
        // real block of 2
        const P t24 = t4 + t16;
        const P t25 = t4 - t16;
        // real block of 2
        const P t26 = t10 + t22;
        const P t27 = t10 - t22;
        // real block of 2
        const P t28 = t24 + t26;
        const P t29 = t24 - t26;
        // real block of 16
        const P t30 = c[0] * t7;
        const P t31 = c[1] * t9;
        const P t32 = t30 - t31;
        const P t33 = c[0] * t9;
        const P t34 = c[1] * t7;
        const P t35 = t33 + t34;
        const P t36 = t13 - t15;
        const P t37 = t15 + t13;
        const P t38 = c[1] * t19;
        const P t39 = c[0] * t21;
        const P t40 = t38 - t39;
        const P t41 = c[1] * t21;
        const P t42 = c[0] * t19;
        const P t43 = t41 + t42;
        const P t44 = c[2] * t36;
        // complex block of 2
        const P t45 = t1 + t44;
        // real block of 16
        const P t46 = c[2] * t37;
        // complex block of 2
        const P t47 = t3 + t46;
        const P t48 = t1 - t44;
        const P t49 = t46 - t3;
        // complex block of 2
        const P t50 = t32 + t40;
        const P t51 = t35 + t43;
        const P t52 = t32 - t40;
        const P t53 = t43 - t35;
        // complex block of 2
        const P t54 = t45 + t50;
        const P t55 = t47 + t51;
        const P t56 = t45 - t50;
        const P t57 = t51 - t47;
        // complex block of 2
        const P t58 = t48 + t53;
        const P t59 = t49 - t52;
        const P t60 = t48 - t53;
        const P t61 = t49 + t52;
        // skew block of 4
        const P t62 = t11 - t23;
        const P t63 = t11 + t23;
        const P t64 = c[2] * t63;
        const P t65 = t64 - t17;
        const P t66 = c[2] * t62;
        const P t67 = t5 + t66;
        const P t68 = t17 + t64;
        const P t69 = t5 - t66;
        const P x0_17 = io.in(0, 17);
        // real block of 17, multiplier 3
        const P t70 = x0_17 + t28;
        const P t71 = c[19] * t28;
        const P t72 = x0_17 - t71;
        const P t73 = c[5] * t54;
        const P t74 = c[6] * t55;
        const P t75 = t73 + t74;
        const P t76 = c[5] * t55;
        const P t77 = c[6] * t54;
        const P t78 = t76 - t77;
        const P t79 = c[7] * t67;
        const P t80 = c[8] * t68;
        const P t81 = t79 - t80;
        const P t82 = c[7] * t68;
        const P t83 = c[8] * t67;
        const P t84 = t82 + t83;
        const P t85 = c[9] * t60;
        const P t86 = c[10] * t61;
        const P t87 = t85 + t86;
        const P t88 = c[9] * t61;
        const P t89 = c[10] * t60;
        const P t90 = t88 - t89;
        const P t91 = c[11] * t25;
        const P t92 = c[12] * t27;
        const P t93 = t91 - t92;
        const P t94 = c[11] * t27;
        const P t95 = c[12] * t25;
        const P t96 = t94 + t95;
        const P t97 = c[13] * t58;
        const P t98 = c[14] * t59;
        const P t99 = t97 + t98;
        const P t100 = c[13] * t59;
        const P t101 = c[14] * t58;
        const P t102 = t100 - t101;
        const P t103 = c[15] * t69;
        const P t104 = c[16] * t65;
        const P t105 = t103 - t104;
        const P t106 = c[15] * t65;
        const P t107 = c[16] * t69;
        const P t108 = t106 + t107;
        const P t109 = c[17] * t56;
        const P t110 = c[18] * t57;
        const P t111 = t109 + t110;
        const P t112 = c[17] * t57;
        const P t113 = c[18] * t56;
        const P t114 = t112 - t113;
        const P t115 = c[20] * t29;
        // spectrum block of 2
        const P t116 = t72 - t115;
        const P t117 = t72 + t115;
        // spectrum block of 2
        const P t118 = t116 + t93;
        const P t119 = t116 - t93;
        // spectrum block of 2
        const P t120 = t117 + t96;
        const P t121 = t117 - t96;
        // mirrored skew block of 4
        const P t122 = t81 - t105;
        const P t123 = t84 + t108;
        const P t124 = t81 + t105;
        const P t125 = c[2] * t122;
        const P t126 = c[2] * t123;
        const P t127 = t125 + t126;
        const P t128 = t108 - t84;
        const P t129 = t125 - t126;
        // spectrum block of 2
        const P t130 = t118 + t124;
        const P t131 = t118 - t124;
        // spectrum block of 2
        const P t132 = t120 + t127;
        const P t133 = t120 - t127;
        // spectrum block of 2
        const P t134 = t119 - t128;
        const P t135 = t119 + t128;
        // spectrum block of 2
        const P t136 = t121 - t129;
        const P t137 = t121 + t129;
        // complex block of 2
        const P t138 = t75 - t111;
        const P t139 = t78 + t114;
        const P t140 = t75 + t111;
        const P t141 = t78 - t114;
        // complex block of 2
        const P t142 = t99 + t87;
        const P t143 = t102 + t90;
        const P t144 = t87 - t99;
        const P t145 = t102 - t90;
        // complex block of 2
        const P t146 = t138 - t142;
        const P t147 = t139 + t143;
        const P t148 = t138 + t142;
        const P t149 = t139 - t143;
        // complex block of 2
        const P t150 = t140 + t145;
        const P t151 = t141 - t144;
        const P t152 = t140 - t145;
        const P t153 = t141 + t144;
        // mirrored skew block of 8
        const P t154 = c[0] * t151;
        const P t155 = c[1] * t150;
        const P t156 = t154 - t155;
        const P t157 = c[0] * t150;
        const P t158 = c[1] * t151;
        const P t159 = t157 + t158;
        const P t160 = c[2] * t149;
        const P t161 = c[2] * t148;
        const P t162 = t160 + t161;
        const P t163 = t161 - t160;
        const P t164 = c[1] * t153;
        const P t165 = c[0] * t152;
        const P t166 = t164 - t165;
        const P t167 = c[1] * t152;
        const P t168 = c[0] * t153;
        const P t169 = t167 + t168;
        const P x37_43 = io.in(37, 43);
        const P x31_25 = io.in(31, 25);
        // real block of 2
        const P t170 = x37_43 + x31_25;
        const P t171 = x37_43 - x31_25;
        const P x22_49 = io.in(22, 49);
        const P x46_19 = io.in(46, 19);
        // real block of 2
        const P t172 = x22_49 + x46_19;
        const P t173 = x22_49 - x46_19;
        // real block of 2
        const P t174 = t170 + t172;
        const P t175 = t170 - t172;
        const P x10_13 = io.in(10, 13);
        const P x7_4 = io.in(7, 4);
        // real block of 2
        const P t176 = x10_13 + x7_4;
        const P t177 = x10_13 - x7_4;
        const P x28_16 = io.in(28, 16);
        const P x40_1 = io.in(40, 1);
        // real block of 2
        const P t178 = x28_16 + x40_1;
        const P t179 = x28_16 - x40_1;
        // real block of 2
        const P t180 = t176 + t178;
        const P t181 = t176 - t178;
        // real block of 2
        const P t182 = t174 + t180;
        const P t183 = t174 - t180;
        const V t184 = part<0>(t182);
        const V t185 = part<1>(t182);
        // real block of 2
        const V t186 = t184 + t185;
        const V t187 = t184 - t185;
        const P t188 = shuffled<1, 3>(t171, t173);
        // real block of 16
        const P t189 = c[0] * t188;
        const P t190 = shuffled<1, 0>(t188);
        const P t191 = P(-c[1], c[1]) * t190;
        const P t192 = t189 + t191;
        const P t193 = shuffled<0, 2>(t177, t179);
        const P t194 = shuffled<1, 0>(t193);
        const P t195 = flipped<1, 0>(t194);
        const P t196 = t193 + t195;
        const P t197 = shuffled<1, 3>(t177, t179);
        const P t198 = c[1] * t197;
        const P t199 = shuffled<1, 0>(t197);
        const P t200 = P(-c[0], c[0]) * t199;
        const P t201 = t198 + t200;
        const P t202 = shuffled<0, 2>(t171, t173);
        const P t203 = c[2] * t196;
        // complex block of 2
        const P t204 = t202 + t203;
        const P t205 = shuffled<0, 3>(t202, t203);
        const P t206 = shuffled<0, 3>(t203, t202);
        const P t207 = t205 - t206;
        // complex block of 2
        const P t208 = t192 + t201;
        const P t209 = shuffled<0, 3>(t192, t201);
        const P t210 = shuffled<0, 3>(t201, t192);
        const P t211 = t209 - t210;
        // complex block of 2
        const P t212 = t204 + t208;
        const P t213 = shuffled<0, 3>(t204, t208);
        const P t214 = shuffled<0, 3>(t208, t204);
        const P t215 = t213 - t214;
        const P t216 = shuffled<1, 0>(t211);
        const P t217 = flipped<0, 1>(t216);
        // complex block of 2
        const P t218 = t207 + t217;
        const P t219 = t207 - t217;
        const V t220 = part<1>(t175);
        const V t221 = part<1>(t181);
        // skew block of 4
        const V t222 = t220 - t221;
        const V t223 = t220 + t221;
        const V t224 = c[2] * t223;
        const V t225 = part<0>(t181);
        const V t226 = t224 - t225;
        const V t227 = part<0>(t175);
        const V t228 = c[2] * t222;
        const V t229 = t227 + t228;
        const V t230 = t225 + t224;
        const V t231 = t227 - t228;
        const V x34 = io.in(34);
        // real block of 17, multiplier 3
        const V t232 = x34 + t186;
        const V t233 = c[19] * t186;
        const V t234 = x34 - t233;
        const P t235 = c[5] * t212;
        const P t236 = shuffled<1, 0>(t212);
        const P t237 = P(c[6], -c[6]) * t236;
        const P t238 = t235 + t237;
        const P t239 = joined(t229, t230);
        const P t240 = c[7] * t239;
        const P t241 = shuffled<1, 0>(t239);
        const P t242 = P(-c[8], c[8]) * t241;
        const P t243 = t240 + t242;
        const P t244 = c[9] * t219;
        const P t245 = shuffled<1, 0>(t219);
        const P t246 = P(c[10], -c[10]) * t245;
        const P t247 = t244 + t246;
        const P t248 = c[11] * t183;
        const P t249 = shuffled<1, 0>(t183);
        const P t250 = P(-c[12], c[12]) * t249;
        const P t251 = t248 + t250;
        const P t252 = c[13] * t218;
        const P t253 = shuffled<1, 0>(t218);
        const P t254 = P(c[14], -c[14]) * t253;
        const P t255 = t252 + t254;
        const P t256 = joined(t231, t226);
        const P t257 = c[15] * t256;
        const P t258 = shuffled<1, 0>(t256);
        const P t259 = P(-c[16], c[16]) * t258;
        const P t260 = t257 + t259;
        const P t261 = c[17] * t215;
        const P t262 = shuffled<1, 0>(t215);
        const P t263 = P(c[18], -c[18]) * t262;
        const P t264 = t261 + t263;
        const V t265 = c[20] * t187;
        // spectrum block of 2
        const V t266 = t234 - t265;
        const V t267 = t234 + t265;
        const P t268 = joined(t266, t267);
        // spectrum block of 2
        const P t269 = t268 + t251;
        const P t270 = t268 - t251;
        const V t271 = part<0>(t243);
        const V t272 = part<0>(t260);
        // mirrored skew block of 4
        const V t273 = t271 - t272;
        const V t274 = part<1>(t243);
        const V t275 = part<1>(t260);
        const V t276 = t274 + t275;
        const V t277 = t271 + t272;
        const V t278 = c[2] * t273;
        const V t279 = c[2] * t276;
        const V t280 = t278 + t279;
        const V t281 = t275 - t274;
        const V t282 = t278 - t279;
        const P t283 = joined(t277, t280);
        // spectrum block of 2
        const P t284 = t269 + t283;
        const P t285 = t269 - t283;
        const P t286 = joined(t281, t282);
        // spectrum block of 2
        const P t287 = t270 - t286;
        const P t288 = t270 + t286;
        const P t289 = shuffled<1, 0>(t238);
        const P t290 = shuffled<1, 0>(t264);
        const P t291 = flipped<0, 1>(t290);
        // complex block of 2
        const P t292 = t289 + t291;
        const P t293 = t289 - t291;
        const P t294 = shuffled<1, 0>(t255);
        const P t295 = shuffled<1, 0>(t247);
        // complex block of 2
        const P t296 = t294 + t295;
        const P t297 = shuffled<0, 3>(t294, t295);
        const P t298 = shuffled<0, 3>(t295, t294);
        const P t299 = t297 - t298;
        const P t300 = flipped<0, 1>(t296);
        // complex block of 2
        const P t301 = t292 + t300;
        const P t302 = t292 - t300;
        const P t303 = shuffled<1, 0>(t299);
        const P t304 = flipped<1, 0>(t303);
        // complex block of 2
        const P t305 = t293 + t304;
        const P t306 = t293 - t304;
        // mirrored skew block of 8
        const P t307 = c[0] * t305;
        const P t308 = shuffled<1, 0>(t305);
        const P t309 = P(-c[1], c[1]) * t308;
        const P t310 = t307 + t309;
        const P t311 = c[2] * t302;
        const P t312 = shuffled<1, 0>(t311);
        const P t313 = flipped<0, 1>(t312);
        const P t314 = t311 + t313;
        const P t315 = c[1] * t306;
        const P t316 = shuffled<1, 0>(t306);
        const P t317 = P(-c[0], c[0]) * t316;
        const P t318 = t315 + t317;
        const V t319 = part<1>(t70);
        // real block of 3, multiplier 2
        const V t320 = t319 + t232;
        const V t321 = t319 - t232;
        const V t322 = part<0>(t70);
        const V t323 = t320 + t322;
        io.re(0, t323);
        const V t324 = c[3] * t320;
        const V t325 = t322 - t324;
        const V t326 = c[4] * t321;
        const P t327 = joined(t325, t326);
        io.pair(17, t327);
        const P t328 = shuffled<1, 3>(t130, t147);
        const P t329 = shuffled<0, 2>(t284, t301);
        // complex block of 3, multiplier 2
        const P t330 = t328 + t329;
        const P t331 = t328 - t329;
        const P t332 = shuffled<0, 2>(t130, t147);
        const P t333 = t330 + t332;
        io.pair(3, t333);
        const P t334 = c[3] * t330;
        const P t335 = t332 - t334;
        const P t336 = P(-c[4], c[4]) * t331;
        const P t337 = shuffled<1, 0>(t336);
        const P t338 = t335 + t337;
        io.pair(14, negated<0, 1>(t338));
        const P t339 = t335 - t337;
        io.pair(20, t339);
        const P t340 = shuffled<1, 3>(t134, t163);
        const P t341 = shuffled<0, 3>(t287, t314);
        // complex block of 3, multiplier 2
        const P t342 = t340 + t341;
        const P t343 = shuffled<0, 3>(t340, t341);
        const P t344 = shuffled<0, 3>(t341, t340);
        const P t345 = t343 - t344;
        const P t346 = shuffled<0, 2>(t134, t163);
        const P t347 = t342 + t346;
        io.pair(6, negated<0, 1>(t347));
        const P t348 = P(-c[3], c[3]) * t342;
        const P t349 = flipped<0, 1>(t346);
        const P t350 = t348 + t349;
        const P t351 = P(-c[4], c[4]) * t345;
        const P t352 = shuffled<1, 0>(t351);
        const P t353 = t350 + t352;
        io.pair(11, negated<0, 1>(t353));
        const P t354 = t350 - t352;
        io.pair(23, t354);
        const P t355 = shuffled<1, 3>(t137, t169);
        const P t356 = shuffled<1, 3>(t288, t318);
        // complex block of 3, multiplier 2
        const P t357 = t355 + t356;
        const P t358 = t355 - t356;
        const P t359 = shuffled<0, 2>(t137, t169);
        const P t360 = t357 + t359;
        io.pair(9, t360);
        const P t361 = c[3] * t357;
        const P t362 = t359 - t361;
        const P t363 = P(-c[4], c[4]) * t358;
        const P t364 = shuffled<1, 0>(t363);
        const P t365 = t362 + t364;
        io.pair(8, negated<0, 1>(t365));
        const P t366 = t362 - t364;
        io.pair(25, negated<0, 1>(t366));
        const P t367 = shuffled<1, 3>(t131, t146);
        const P t368 = shuffled<0, 3>(t285, t301);
        // complex block of 3, multiplier 2
        const P t369 = t367 + t368;
        const P t370 = shuffled<0, 3>(t367, t368);
        const P t371 = shuffled<0, 3>(t368, t367);
        const P t372 = t370 - t371;
        const P t373 = shuffled<0, 2>(t131, t146);
        const P t374 = t369 + t373;
        io.pair(12, negated<0, 1>(t374));
        const P t375 = P(-c[3], c[3]) * t369;
        const P t376 = flipped<0, 1>(t373);
        const P t377 = t375 + t376;
        const P t378 = P(-c[4], c[4]) * t372;
        const P t379 = shuffled<1, 0>(t378);
        const P t380 = t377 + t379;
        io.pair(5, negated<0, 1>(t380));
        const P t381 = t377 - t379;
        io.pair(22, negated<0, 1>(t381));
        const P t382 = shuffled<1, 3>(t136, t166);
        const P t383 = shuffled<1, 2>(t287, t318);
        // complex block of 3, multiplier 2
        const P t384 = t382 + t383;
        const P t385 = shuffled<0, 3>(t382, t383);
        const P t386 = shuffled<0, 3>(t383, t382);
        const P t387 = t385 - t386;
        const P t388 = shuffled<0, 2>(t136, t166);
        const P t389 = t384 + t388;
        io.pair(15, negated<0, 1>(t389));
        const P t390 = P(-c[3], c[3]) * t384;
        const P t391 = flipped<0, 1>(t388);
        const P t392 = t390 + t391;
        const P t393 = P(-c[4], c[4]) * t387;
        const P t394 = shuffled<1, 0>(t393);
        const P t395 = t392 + t394;
        io.pair(2, negated<0, 1>(t395));
        const P t396 = t392 - t394;
        io.pair(19, negated<0, 1>(t396));
        const P t397 = shuffled<1, 3>(t132, t156);
        const P t398 = shuffled<1, 2>(t284, t310);
        // complex block of 3, multiplier 2
        const P t399 = t397 + t398;
        const P t400 = t397 - t398;
        const P t401 = shuffled<0, 2>(t132, t156);
        const P t402 = t399 + t401;
        io.pair(18, t402);
        const P t403 = c[3] * t399;
        const P t404 = t401 - t403;
        const P t405 = P(-c[4], c[4]) * t400;
        const P t406 = shuffled<1, 0>(t405);
        const P t407 = t404 + t406;
        io.pair(1, t407);
        const P t408 = t404 - t406;
        io.pair(16, negated<0, 1>(t408));
        const P t409 = shuffled<1, 3>(t133, t159);
        const P t410 = shuffled<1, 3>(t285, t310);
        // complex block of 3, multiplier 2
        const P t411 = t409 + t410;
        const P t412 = shuffled<0, 3>(t409, t410);
        const P t413 = shuffled<0, 3>(t410, t409);
        const P t414 = t412 - t413;
        const P t415 = shuffled<0, 2>(t133, t159);
        const P t416 = t411 + t415;
        io.pair(21, negated<0, 1>(t416));
        const P t417 = P(-c[3], c[3]) * t411;
        const P t418 = flipped<0, 1>(t415);
        const P t419 = t417 + t418;
        const P t420 = P(-c[4], c[4]) * t414;
        const P t421 = shuffled<1, 0>(t420);
        const P t422 = t419 + t421;
        io.pair(4, t422);
        const P t423 = t419 - t421;
        io.pair(13, negated<0, 1>(t423));
        const P t424 = shuffled<1, 3>(t135, t162);
        const P t425 = shuffled<0, 2>(t288, t314);
        // complex block of 3, multiplier 2
        const P t426 = t424 + t425;
        const P t427 = shuffled<0, 3>(t424, t425);
        const P t428 = shuffled<0, 3>(t425, t424);
        const P t429 = t427 - t428;
        const P t430 = shuffled<0, 2>(t135, t162);
        const P t431 = t426 + t430;
        io.pair(24, negated<0, 1>(t431));
        const P t432 = P(-c[3], c[3]) * t426;
        const P t433 = flipped<0, 1>(t430);
        const P t434 = t432 + t433;
        const P t435 = P(-c[4], c[4]) * t429;
        const P t436 = shuffled<1, 0>(t435);
        const P t437 = t434 + t436;
        io.pair(7, t437);
        const P t438 = t434 - t436;
        io.pair(10, negated<0, 1>(t438));
    }
};

}  // namespace zulg
