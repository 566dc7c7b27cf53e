// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 52.
// Inverse DFT to 52 real points, prime-factor 13, 4; two lanes to a register.
// 117 sums, 91 differences, 105 products of registers, which do the 676 steps of the graph, those with
// `scale` included; 63 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<52> {
    static constexpr int steps = 676;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 2/3
        0.8660254037844386,  // c[2]: -sin 2 pi 2/3
        0.6007253775544544,  // c[3]: -Q[1] of 13
        0.015496188988565054,  // c[4]: P[1] of 13
        0.5751407294740031,  // c[5]: P[3] of 13
        0.1741386011521359,  // c[6]: Q[3] of 13
        0.5084294662830964,  // c[7]: -Q[5] of 13
        0.3203288761978803,  // c[8]: P[5] of 13
        0.08333333333333333,  // c[9]: 1/12
        0.007705858903092426,  // c[10]: P[2] of 13
        0.6008758031820526,  // c[11]: -Q[2] of 13
        0.5794400189009605,  // c[12]: -P[4] of 13
        0.15924941320823024,  // c[13]: -Q[4] of 13
        0.5018097763375671,  // c[14]: -sin 2 pi 2/3 times -P[4] of 13
        0.1379140373760925,  // c[15]: -sin 2 pi 2/3 times -Q[4] of 13
        0.3004626062886658,  // c[16]: beta of 13
        0.00667346956805653,  // c[17]: -sin 2 pi 2/3 times P[2] of 13
        0.520373710075036,  // c[18]: -sin 2 pi 2/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x17 = io.pair(17);
        // doubled bins
        const P t0 = c[0] * x17;
        const P x9 = io.pair(9);
        const P t1 = c[0] * x9;
        // real block of 2
        const P t2 = t0 + t1;
        const P t3 = t0 - t1;
        const P x7 = io.pair(7);
        // doubled bins
        const P t4 = c[0] * x7;
        const P x19 = io.pair(19);
        const P t5 = c[0] * x19;
        // real block of 2
        const P t6 = t4 + t5;
        const P t7 = shuffled<0, 3>(t4, t5);
        const P t8 = shuffled<0, 3>(t5, t4);
        const P t9 = t7 - t8;
        const P t10 = flipped<0, 1>(t6);
        // real block of 2
        const P t11 = t2 + t10;
        const P t12 = t2 - t10;
        const P x25 = io.pair(25);
        // doubled bins
        const P t13 = c[0] * x25;
        const P x1 = io.pair(1);
        const P t14 = c[0] * x1;
        // real block of 2
        const P t15 = t13 + t14;
        const P t16 = t13 - t14;
        const P x5 = io.pair(5);
        // doubled bins
        const P t17 = c[0] * x5;
        const P x21 = io.pair(21);
        const P t18 = c[0] * x21;
        // real block of 2
        const P t19 = t17 + t18;
        const P t20 = t17 - t18;
        // real block of 2
        const P t21 = t15 + t19;
        const P t22 = t15 - t19;
        const P x3 = io.pair(3);
        // doubled bins
        const P t23 = c[0] * x3;
        const P x23 = io.pair(23);
        const P t24 = c[0] * x23;
        // real block of 2
        const P t25 = t23 + t24;
        const P t26 = shuffled<0, 3>(t23, t24);
        const P t27 = shuffled<0, 3>(t24, t23);
        const P t28 = t26 - t27;
        const P x11 = io.pair(11);
        // doubled bins
        const P t29 = c[0] * x11;
        const P x15 = io.pair(15);
        const P t30 = c[0] * x15;
        // real block of 2
        const P t31 = t29 + t30;
        const P t32 = shuffled<0, 3>(t29, t30);
        const P t33 = shuffled<0, 3>(t30, t29);
        const P t34 = t32 - t33;
        // real block of 2
        const P t35 = t25 + t31;
        const P t36 = shuffled<0, 3>(t25, t31);
        const P t37 = shuffled<0, 3>(t31, t25);
        const P t38 = t36 - t37;
        const P t39 = flipped<0, 1>(t35);
        // real block of 3
        const P t40 = t21 + t39;
        const P t41 = t21 - t39;
        const P t42 = t40 + t11;
        const P t43 = c[1] * t40;
        const P t44 = t11 - t43;
        // complex block of 3
        const P t45 = t16 + t28;
        const P t46 = t20 + t34;
        const P t47 = t16 - t28;
        const P t48 = t20 - t34;
        const P t49 = t45 + t3;
        const P t50 = t46 + t9;
        const P t51 = c[1] * t45;
        const P t52 = t3 - t51;
        const P t53 = c[1] * t46;
        const P t54 = t9 - t53;
        const P t55 = c[2] * t48;
        const P t56 = t52 + t55;
        const P t57 = c[2] * t47;
        const P t58 = t54 - t57;
        const P t59 = t52 - t55;
        const P t60 = t54 + t57;
        // real block of 3
        const P t61 = t22 + t38;
        const P t62 = t22 - t38;
        const P t63 = t61 + t12;
        const P t64 = c[1] * t61;
        const P t65 = t12 - t64;
        const P x13 = io.pair(13);
        // doubled bins
        const P t66 = c[0] * x13;
        // complex block of 13, multiplier 4
        const P t67 = t66 + t42;
        const P t68 = c[9] * t42;
        const P t69 = t66 - t68;
        const P t70 = shuffled<1, 0>(t59);
        const P t71 = P(-c[3], c[3]) * t70;
        const P t72 = shuffled<1, 0>(t60);
        const P t73 = P(c[4], -c[4]) * t72;
        const P t74 = t71 + t73;
        const P t75 = c[3] * t72;
        const P t76 = c[4] * t70;
        const P t77 = t75 + t76;
        const P t78 = c[10] * t65;
        // real block of 3
        const P t79 = c[2] * t62;
        // complex block of 13, multiplier 4
        const P t80 = c[11] * t79;
        const P t81 = t78 + t80;
        const P t82 = shuffled<1, 0>(t50);
        const P t83 = P(-c[5], c[5]) * t82;
        const P t84 = shuffled<1, 0>(t49);
        const P t85 = P(c[6], -c[6]) * t84;
        const P t86 = t83 + t85;
        const P t87 = c[6] * t82;
        const P t88 = c[5] * t84;
        const P t89 = t87 + t88;
        const P t90 = c[12] * t44;
        // real block of 3
        const P t91 = c[2] * t41;
        // complex block of 13, multiplier 4
        const P t92 = c[13] * t91;
        const P t93 = t90 + t92;
        const P t94 = shuffled<1, 0>(t56);
        const P t95 = P(-c[7], c[7]) * t94;
        const P t96 = shuffled<1, 0>(t58);
        const P t97 = P(c[8], -c[8]) * t96;
        const P t98 = t95 + t97;
        const P t99 = c[7] * t96;
        const P t100 = c[8] * t94;
        const P t101 = t99 + t100;
        // spectrum block of 3
        const P t102 = t69 - t93;
        const P t103 = c[1] * t93;
        const P t104 = t103 + t69;
        const P t105 = c[14] * t91;
        const P t106 = c[15] * t44;
        const P t107 = t105 - t106;
        const P t108 = t104 - t107;
        const P t109 = t104 + t107;
        // complex block of 3
        const P t110 = t101 + t77;
        const P t111 = t98 + t74;
        const P t112 = shuffled<0, 3>(t77, t101);
        const P t113 = shuffled<0, 3>(t101, t77);
        const P t114 = t112 - t113;
        const P t115 = t98 - t74;
        const P t116 = shuffled<0, 3>(t89, t110);
        const P t117 = shuffled<0, 3>(t110, t89);
        const P t118 = t116 - t117;
        const P t119 = t111 + t86;
        const P t120 = c[1] * t110;
        const P t121 = t89 + t120;
        const P t122 = c[1] * t111;
        const P t123 = t86 - t122;
        const P t124 = c[2] * t115;
        const P t125 = flipped<0, 1>(t121);
        const P t126 = t124 + t125;
        const P t127 = c[2] * t114;
        const P t128 = t123 - t127;
        const P t129 = flipped<1, 0>(t124);
        const P t130 = t121 + t129;
        const P t131 = t123 + t127;
        // complex block of 13, multiplier 4
        const P t132 = c[16] * t63;
        // spectrum block of 3
        const P t133 = t81 + t132;
        const P t134 = c[1] * t81;
        const P t135 = t132 - t134;
        const P t136 = c[17] * t79;
        const P t137 = c[18] * t65;
        const P t138 = t136 - t137;
        const P t139 = t135 + t138;
        const P t140 = t135 - t138;
        // spectrum block of 2
        const P t141 = t102 + t133;
        const P t142 = t102 - t133;
        // spectrum block of 2
        const P t143 = t141 + t119;
        const P t144 = t141 - t119;
        // spectrum block of 2
        const P t145 = t142 + t118;
        const P t146 = t142 - t118;
        // spectrum block of 2
        const P t147 = t108 + t139;
        const P t148 = t108 - t139;
        // spectrum block of 2
        const P t149 = t147 + t128;
        const P t150 = t147 - t128;
        // spectrum block of 2
        const P t151 = t148 + t126;
        const P t152 = t148 - t126;
        // spectrum block of 2
        const P t153 = t109 + t140;
        const P t154 = t109 - t140;
        // spectrum block of 2
        const P t155 = t153 + t131;
        const P t156 = t153 - t131;
        const P t157 = flipped<0, 1>(t130);
        // spectrum block of 2
        const P t158 = t154 + t157;
        const P t159 = t154 - t157;
        const P x16 = io.pair(16);
        // doubled bins
        const P t160 = c[0] * x16;
        const P x10 = io.pair(10);
        const P t161 = c[0] * x10;
        const P t162 = shuffled<0, 2>(t160, t161);
        const P x12 = io.pair(12);
        const P t163 = c[0] * x12;
        const P x14 = io.pair(14);
        const P t164 = c[0] * x14;
        const P t165 = shuffled<0, 2>(t163, t164);
        // real block of 3, multiplier 2
        const P t166 = t162 + t165;
        const P t167 = t162 - t165;
        const P x4 = io.pair(4);
        // doubled bins
        const P t168 = c[0] * x4;
        const P x22 = io.pair(22);
        const P t169 = c[0] * x22;
        const P t170 = shuffled<0, 2>(t168, t169);
        // real block of 3, multiplier 2
        const P t171 = t166 + t170;
        const P t172 = c[1] * t166;
        const P t173 = t170 - t172;
        const P x24 = io.pair(24);
        // doubled bins
        const P t174 = c[0] * x24;
        const P x2 = io.pair(2);
        const P t175 = c[0] * x2;
        const P t176 = shuffled<0, 2>(t174, t175);
        const P x8 = io.pair(8);
        const P t177 = c[0] * x8;
        const P x18 = io.pair(18);
        const P t178 = c[0] * x18;
        const P t179 = shuffled<0, 2>(t177, t178);
        // real block of 3, multiplier 2
        const P t180 = t176 + t179;
        const P t181 = t176 - t179;
        const P x20 = io.pair(20);
        // doubled bins
        const P t182 = c[0] * x20;
        const P x6 = io.pair(6);
        const P t183 = c[0] * x6;
        const P t184 = shuffled<0, 2>(t182, t183);
        // real block of 3, multiplier 2
        const P t185 = t180 + t184;
        const P t186 = c[1] * t180;
        const P t187 = t184 - t186;
        // real block of 2
        const P t188 = t171 + t185;
        const P t189 = t171 - t185;
        // complex block of 2
        const P t190 = t173 + t187;
        // real block of 3, multiplier 2
        const P t191 = c[2] * t167;
        // real block of 3, multiplier 2
        const P t192 = c[2] * t181;
        // complex block of 2
        const P t193 = t191 + t192;
        const P t194 = t173 - t187;
        const P t195 = t191 - t192;
        const P t196 = shuffled<1, 3>(t163, t164);
        // skew block of 6
        const P t197 = P(-c[1], c[1]) * t196;
        const P t198 = shuffled<1, 3>(t177, t178);
        const P t199 = P(c[2], -c[2]) * t198;
        const P t200 = t197 + t199;
        const P t201 = c[2] * t196;
        const P t202 = c[1] * t198;
        const P t203 = t201 + t202;
        const P t204 = shuffled<1, 3>(t174, t175);
        const P t205 = P(-c[2], c[2]) * t204;
        const P t206 = shuffled<1, 3>(t160, t161);
        const P t207 = P(c[1], -c[1]) * t206;
        const P t208 = t205 + t207;
        const P t209 = c[1] * t204;
        const P t210 = c[2] * t206;
        const P t211 = t209 + t210;
        // complex block of 3
        const P t212 = t200 + t208;
        const P t213 = t203 + t211;
        const P t214 = t200 - t208;
        const P t215 = shuffled<0, 3>(t211, t203);
        const P t216 = shuffled<0, 3>(t203, t211);
        const P t217 = t215 - t216;
        const P t218 = shuffled<1, 3>(t168, t169);
        const P t219 = flipped<0, 1>(t218);
        const P t220 = t212 + t219;
        const P t221 = shuffled<1, 3>(t182, t213);
        const P t222 = shuffled<0, 3>(t213, t183);
        const P t223 = t221 - t222;
        const P t224 = P(-c[1], c[1]) * t212;
        const P t225 = t218 + t224;
        const P t226 = shuffled<0, 3>(t221, t222);
        const P t227 = c[1] * t213;
        const P t228 = t226 + t227;
        const P t229 = c[2] * t217;
        const P t230 = flipped<0, 1>(t225);
        const P t231 = t229 + t230;
        const P t232 = P(-c[2], c[2]) * t214;
        const P t233 = t228 + t232;
        const P t234 = flipped<1, 0>(t229);
        const P t235 = t225 + t234;
        const P t236 = shuffled<0, 3>(t228, t232);
        const P t237 = shuffled<0, 3>(t232, t228);
        const P t238 = t236 - t237;
        const V x0r = io.re(0);
        const V x26r = io.re(26);
        const P t239 = joined(x0r, x26r);
        // spectrum block of 13, multiplier 4
        const P t240 = c[9] * t188;
        const P t241 = t239 - t240;
        const P t242 = c[3] * t220;
        const P t243 = c[4] * t223;
        const P t244 = t242 + t243;
        const P t245 = c[4] * t220;
        const P t246 = c[3] * t223;
        const P t247 = t245 - t246;
        const P t248 = c[10] * t194;
        const P t249 = c[11] * t195;
        const P t250 = t248 - t249;
        const P t251 = c[5] * t238;
        const P t252 = P(c[6], -c[6]) * t235;
        const P t253 = t251 + t252;
        const P t254 = P(-c[6], c[6]) * t238;
        const P t255 = c[5] * t235;
        const P t256 = t254 + t255;
        const P t257 = c[13] * t193;
        const P t258 = c[12] * t190;
        const P t259 = t257 - t258;
        const P t260 = c[8] * t233;
        const P t261 = P(c[7], -c[7]) * t231;
        const P t262 = t260 + t261;
        const P t263 = P(-c[7], c[7]) * t233;
        const P t264 = c[8] * t231;
        const P t265 = t263 + t264;
        // spectrum block of 3
        const P t266 = t259 + t241;
        const P t267 = c[1] * t259;
        const P t268 = t241 - t267;
        const P t269 = c[14] * t193;
        const P t270 = c[15] * t190;
        const P t271 = t269 + t270;
        const P t272 = t268 + t271;
        const P t273 = t268 - t271;
        // complex block of 3
        const P t274 = t265 + t247;
        const P t275 = flipped<0, 1>(t244);
        const P t276 = t262 + t275;
        const P t277 = t247 - t265;
        const P t278 = flipped<1, 0>(t262);
        const P t279 = t278 + t244;
        const P t280 = flipped<1, 0>(t274);
        const P t281 = t280 + t256;
        const P t282 = flipped<1, 0>(t276);
        const P t283 = t282 + t253;
        const P t284 = c[1] * t274;
        const P t285 = flipped<0, 1>(t256);
        const P t286 = t284 + t285;
        const P t287 = P(c[1], -c[1]) * t276;
        const P t288 = t253 + t287;
        const P t289 = c[2] * t279;
        const P t290 = t286 + t289;
        const P t291 = c[2] * t277;
        const P t292 = t288 - t291;
        const P t293 = t286 - t289;
        const P t294 = t288 + t291;
        // spectrum block of 13, multiplier 4
        const P t295 = c[16] * t189;
        // spectrum block of 3
        const P t296 = t250 + t295;
        const P t297 = c[1] * t250;
        const P t298 = t295 - t297;
        const P t299 = c[17] * t195;
        const P t300 = c[18] * t194;
        const P t301 = t299 + t300;
        const P t302 = t298 - t301;
        const P t303 = t298 + t301;
        // spectrum block of 2
        const P t304 = t266 + t296;
        const P t305 = t266 - t296;
        // spectrum block of 2
        const P t306 = t304 + t283;
        const P t307 = t304 - t283;
        const P t308 = flipped<0, 1>(t281);
        // spectrum block of 2
        const P t309 = t305 + t308;
        const P t310 = t305 - t308;
        // spectrum block of 2
        const P t311 = t272 + t302;
        const P t312 = t272 - t302;
        // spectrum block of 2
        const P t313 = t311 + t292;
        const P t314 = t311 - t292;
        // spectrum block of 2
        const P t315 = t312 + t290;
        const P t316 = t312 - t290;
        // spectrum block of 2
        const P t317 = t273 + t303;
        const P t318 = t273 - t303;
        // spectrum block of 2
        const P t319 = t317 + t294;
        const P t320 = t317 - t294;
        // spectrum block of 2
        const P t321 = t318 + t293;
        const P t322 = t318 - t293;
        // spectrum block of 13, multiplier 4
        const P t323 = t239 + t188;
        const P t324 = shuffled<0, 2>(t323, t306);
        const P t325 = shuffled<1, 3>(t323, t306);
        // spectrum block of 2
        const P t326 = t324 + t325;
        const P t327 = t324 - t325;
        const P t328 = shuffled<0, 2>(t67, t143);
        // spectrum block of 2
        const P t329 = t326 + t328;
        io.out(0, 4, t329);
        const P t330 = t326 - t328;
        io.out(26, 30, t330);
        const P t331 = shuffled<1, 3>(t67, t143);
        // spectrum block of 2
        const P t332 = t327 - t331;
        io.out(13, 17, t332);
        const P t333 = t327 + t331;
        io.out(39, 43, t333);
        const P t334 = shuffled<0, 2>(t321, t319);
        const P t335 = shuffled<1, 3>(t321, t319);
        // spectrum block of 2
        const P t336 = t334 + t335;
        const P t337 = t334 - t335;
        const P t338 = shuffled<0, 2>(t158, t155);
        // spectrum block of 2
        const P t339 = t336 + t338;
        io.out(8, 12, t339);
        const P t340 = t336 - t338;
        io.out(34, 38, t340);
        const P t341 = shuffled<1, 3>(t158, t155);
        // spectrum block of 2
        const P t342 = t337 - t341;
        io.out(21, 25, t342);
        const P t343 = t337 + t341;
        io.out(47, 51, t343);
        const P t344 = shuffled<0, 2>(t314, t309);
        const P t345 = shuffled<1, 3>(t314, t309);
        // spectrum block of 2
        const P t346 = t344 + t345;
        const P t347 = t344 - t345;
        const P t348 = shuffled<0, 2>(t150, t145);
        // spectrum block of 2
        const P t349 = t346 + t348;
        io.out(16, 20, t349);
        const P t350 = t346 - t348;
        io.out(42, 46, t350);
        const P t351 = shuffled<1, 3>(t150, t145);
        // spectrum block of 2
        const P t352 = t347 - t351;
        io.out(29, 33, t352);
        const P t353 = t347 + t351;
        io.out(3, 7, t353);
        const P t354 = shuffled<0, 2>(t315, t316);
        const P t355 = shuffled<1, 3>(t315, t316);
        // spectrum block of 2
        const P t356 = t354 + t355;
        const P t357 = t354 - t355;
        const P t358 = shuffled<0, 2>(t151, t152);
        // spectrum block of 2
        const P t359 = t356 + t358;
        io.out(24, 28, t359);
        const P t360 = t356 - t358;
        io.out(50, 2, t360);
        const P t361 = shuffled<1, 3>(t151, t152);
        // spectrum block of 2
        const P t362 = t357 - t361;
        io.out(37, 41, t362);
        const P t363 = t357 + t361;
        io.out(11, 15, t363);
        const P t364 = shuffled<0, 2>(t310, t313);
        const P t365 = shuffled<1, 3>(t310, t313);
        // spectrum block of 2
        const P t366 = t364 + t365;
        const P t367 = t364 - t365;
        const P t368 = shuffled<0, 2>(t146, t149);
        // spectrum block of 2
        const P t369 = t366 + t368;
        io.out(32, 36, t369);
        const P t370 = t366 - t368;
        io.out(6, 10, t370);
        const P t371 = shuffled<1, 3>(t146, t149);
        // spectrum block of 2
        const P t372 = t367 - t371;
        io.out(45, 49, t372);
        const P t373 = t367 + t371;
        io.out(19, 23, t373);
        const P t374 = shuffled<0, 2>(t320, t322);
        const P t375 = shuffled<1, 3>(t320, t322);
        // spectrum block of 2
        const P t376 = t374 + t375;
        const P t377 = t374 - t375;
        const P t378 = shuffled<0, 2>(t156, t159);
        // spectrum block of 2
        const P t379 = t376 + t378;
        io.out(40, 44, t379);
        const P t380 = t376 - t378;
        io.out(14, 18, t380);
        const P t381 = shuffled<1, 3>(t156, t159);
        // spectrum block of 2
        const P t382 = t377 - t381;
        io.out(1, 5, t382);
        const P t383 = t377 + t381;
        io.out(27, 31, t383);
        const V t384 = part<0>(t307);
        const V t385 = part<1>(t307);
        // spectrum block of 2
        const V t386 = t384 + t385;
        const V t387 = t384 - t385;
        const P t388 = joined(t386, t387);
        const P t389 = flipped<0, 1>(t144);
        // spectrum block of 2
        const P t390 = t388 + t389;
        io.out(48, 9, t390);
        const P t391 = t388 - t389;
        io.out(22, 35, t391);
    }
};

}  // namespace zulg
