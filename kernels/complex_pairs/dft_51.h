// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 51.
// Complex DFT of 51 points, prime-factor, order 3, 17; one complex number to a register.
// 267 sums, 231 differences, 196 products of registers, which do the 1490 steps of the graph, those with
// `scale` included; 53 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<51> {
    static constexpr int steps = 1490;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.5,  // c[3]: -cos 2 pi 1/3
        0.8660254037844386,  // c[4]: sin 2 pi 1/3
        0.4314031601143256,  // c[5]: -P[1] of 17
        0.281986371024157,  // c[6]: Q[1] of 17
        0.023972509657154296,  // c[7]: P[2] of 17
        0.51483037864984,  // c[8]: -Q[2] of 17
        0.4407489637509731,  // c[9]: -P[3] of 17
        0.26714294104925057,  // c[10]: Q[3] of 17
        0.40623178445333147,  // c[11]: P[4] of 17
        0.31717619283272513,  // c[12]: -Q[4] of 17
        0.508427430394848,  // c[13]: P[5] of 17
        0.08441888427414843,  // c[14]: Q[5] of 17
        0.33572816326715627,  // c[15]: P[6] of 17
        0.39103912897466114,  // c[16]: -Q[6] of 17
        0.4440524091413236,  // c[17]: -P[7] of 17
        0.2616150950075063,  // c[18]: Q[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x17 = io.pair(17);
        const P x34 = io.pair(34);
        // complex block of 3, multiplier 2
        const P t0 = x17 + x34;
        const P t1 = x17 - x34;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[3] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[4], c[4]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x20 = io.pair(20);
        const P x37 = io.pair(37);
        // complex block of 3, multiplier 2
        const P t9 = x20 + x37;
        const P t10 = x20 - x37;
        const P x3 = io.pair(3);
        const P t11 = t9 + x3;
        const P t12 = c[3] * t9;
        const P t13 = x3 - t12;
        const P t14 = P(-c[4], c[4]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x23 = io.pair(23);
        const P x40 = io.pair(40);
        // complex block of 3, multiplier 2
        const P t18 = x23 + x40;
        const P t19 = x23 - x40;
        const P x6 = io.pair(6);
        const P t20 = t18 + x6;
        const P t21 = c[3] * t18;
        const P t22 = x6 - t21;
        const P t23 = P(-c[4], c[4]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P x26 = io.pair(26);
        const P x43 = io.pair(43);
        // complex block of 3, multiplier 2
        const P t27 = x26 + x43;
        const P t28 = x26 - x43;
        const P x9 = io.pair(9);
        const P t29 = t27 + x9;
        const P t30 = c[3] * t27;
        const P t31 = x9 - t30;
        const P t32 = P(-c[4], c[4]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x29 = io.pair(29);
        const P x46 = io.pair(46);
        // complex block of 3, multiplier 2
        const P t36 = x29 + x46;
        const P t37 = x29 - x46;
        const P x12 = io.pair(12);
        const P t38 = t36 + x12;
        const P t39 = c[3] * t36;
        const P t40 = x12 - t39;
        const P t41 = P(-c[4], c[4]) * t37;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        const P x32 = io.pair(32);
        const P x49 = io.pair(49);
        // complex block of 3, multiplier 2
        const P t45 = x32 + x49;
        const P t46 = x32 - x49;
        const P x15 = io.pair(15);
        const P t47 = t45 + x15;
        const P t48 = c[3] * t45;
        const P t49 = x15 - t48;
        const P t50 = P(-c[4], c[4]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const P x35 = io.pair(35);
        const P x1 = io.pair(1);
        // complex block of 3, multiplier 2
        const P t54 = x35 + x1;
        const P t55 = x35 - x1;
        const P x18 = io.pair(18);
        const P t56 = t54 + x18;
        const P t57 = c[3] * t54;
        const P t58 = x18 - t57;
        const P t59 = P(-c[4], c[4]) * t55;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        const P x38 = io.pair(38);
        const P x4 = io.pair(4);
        // complex block of 3, multiplier 2
        const P t63 = x38 + x4;
        const P t64 = x38 - x4;
        const P x21 = io.pair(21);
        const P t65 = t63 + x21;
        const P t66 = c[3] * t63;
        const P t67 = x21 - t66;
        const P t68 = P(-c[4], c[4]) * t64;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P x41 = io.pair(41);
        const P x7 = io.pair(7);
        // complex block of 3, multiplier 2
        const P t72 = x41 + x7;
        const P t73 = x41 - x7;
        const P x24 = io.pair(24);
        const P t74 = t72 + x24;
        const P t75 = c[3] * t72;
        const P t76 = x24 - t75;
        const P t77 = P(-c[4], c[4]) * t73;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = t76 + t78;
        const P t80 = t76 - t78;
        const P x44 = io.pair(44);
        const P x10 = io.pair(10);
        // complex block of 3, multiplier 2
        const P t81 = x44 + x10;
        const P t82 = x44 - x10;
        const P x27 = io.pair(27);
        const P t83 = t81 + x27;
        const P t84 = c[3] * t81;
        const P t85 = x27 - t84;
        const P t86 = P(-c[4], c[4]) * t82;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P x47 = io.pair(47);
        const P x13 = io.pair(13);
        // complex block of 3, multiplier 2
        const P t90 = x47 + x13;
        const P t91 = x47 - x13;
        const P x30 = io.pair(30);
        const P t92 = t90 + x30;
        const P t93 = c[3] * t90;
        const P t94 = x30 - t93;
        const P t95 = P(-c[4], c[4]) * t91;
        const P t96 = shuffled<1, 0>(t95);
        const P t97 = t94 + t96;
        const P t98 = t94 - t96;
        const P x50 = io.pair(50);
        const P x16 = io.pair(16);
        // complex block of 3, multiplier 2
        const P t99 = x50 + x16;
        const P t100 = x50 - x16;
        const P x33 = io.pair(33);
        const P t101 = t99 + x33;
        const P t102 = c[3] * t99;
        const P t103 = x33 - t102;
        const P t104 = P(-c[4], c[4]) * t100;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = t103 + t105;
        const P t107 = t103 - t105;
        const P x2 = io.pair(2);
        const P x19 = io.pair(19);
        // complex block of 3, multiplier 2
        const P t108 = x2 + x19;
        const P t109 = x2 - x19;
        const P x36 = io.pair(36);
        const P t110 = t108 + x36;
        const P t111 = c[3] * t108;
        const P t112 = x36 - t111;
        const P t113 = P(-c[4], c[4]) * t109;
        const P t114 = shuffled<1, 0>(t113);
        const P t115 = t112 + t114;
        const P t116 = t112 - t114;
        const P x5 = io.pair(5);
        const P x22 = io.pair(22);
        // complex block of 3, multiplier 2
        const P t117 = x5 + x22;
        const P t118 = x5 - x22;
        const P x39 = io.pair(39);
        const P t119 = t117 + x39;
        const P t120 = c[3] * t117;
        const P t121 = x39 - t120;
        const P t122 = P(-c[4], c[4]) * t118;
        const P t123 = shuffled<1, 0>(t122);
        const P t124 = t121 + t123;
        const P t125 = t121 - t123;
        const P x8 = io.pair(8);
        const P x25 = io.pair(25);
        // complex block of 3, multiplier 2
        const P t126 = x8 + x25;
        const P t127 = x8 - x25;
        const P x42 = io.pair(42);
        const P t128 = t126 + x42;
        const P t129 = c[3] * t126;
        const P t130 = x42 - t129;
        const P t131 = P(-c[4], c[4]) * t127;
        const P t132 = shuffled<1, 0>(t131);
        const P t133 = t130 + t132;
        const P t134 = t130 - t132;
        const P x11 = io.pair(11);
        const P x28 = io.pair(28);
        // complex block of 3, multiplier 2
        const P t135 = x11 + x28;
        const P t136 = x11 - x28;
        const P x45 = io.pair(45);
        const P t137 = t135 + x45;
        const P t138 = c[3] * t135;
        const P t139 = x45 - t138;
        const P t140 = P(-c[4], c[4]) * t136;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = t139 + t141;
        const P t143 = t139 - t141;
        const P x14 = io.pair(14);
        const P x31 = io.pair(31);
        // complex block of 3, multiplier 2
        const P t144 = x14 + x31;
        const P t145 = x14 - x31;
        const P x48 = io.pair(48);
        const P t146 = t144 + x48;
        const P t147 = c[3] * t144;
        const P t148 = x48 - t147;
        const P t149 = P(-c[4], c[4]) * t145;
        const P t150 = shuffled<1, 0>(t149);
        const P t151 = t148 + t150;
        const P t152 = t148 - t150;
        // real block of 2
        const P t153 = t11 + t146;
        const P t154 = t11 - t146;
        // real block of 2
        const P t155 = t119 + t38;
        const P t156 = t119 - t38;
        // real block of 2
        const P t157 = t153 + t155;
        const P t158 = t153 - t155;
        // real block of 2
        const P t159 = t29 + t128;
        const P t160 = t29 - t128;
        // real block of 2
        const P t161 = t47 + t110;
        const P t162 = t47 - t110;
        // real block of 2
        const P t163 = t159 + t161;
        const P t164 = t159 - t161;
        // real block of 2
        const P t165 = t83 + t74;
        const P t166 = t83 - t74;
        // real block of 2
        const P t167 = t137 + t20;
        const P t168 = t137 - t20;
        // real block of 2
        const P t169 = t165 + t167;
        const P t170 = t165 - t167;
        // real block of 2
        const P t171 = t92 + t65;
        const P t172 = t92 - t65;
        // real block of 2
        const P t173 = t101 + t56;
        const P t174 = t101 - t56;
        // real block of 2
        const P t175 = t171 + t173;
        const P t176 = t171 - t173;
        // real block of 2
        const P t177 = t157 + t169;
        const P t178 = t157 - t169;
        // real block of 2
        const P t179 = t163 + t175;
        const P t180 = t163 - t175;
        // real block of 2
        const P t181 = t177 + t179;
        const P t182 = t177 - t179;
        // real block of 16
        const P t183 = c[0] * t160;
        const P t184 = c[1] * t162;
        const P t185 = t183 - t184;
        const P t186 = c[0] * t162;
        const P t187 = c[1] * t160;
        const P t188 = t186 + t187;
        const P t189 = t166 - t168;
        const P t190 = t168 + t166;
        const P t191 = c[1] * t172;
        const P t192 = c[0] * t174;
        const P t193 = t191 - t192;
        const P t194 = c[1] * t174;
        const P t195 = c[0] * t172;
        const P t196 = t194 + t195;
        const P t197 = c[2] * t189;
        // complex block of 2
        const P t198 = t154 + t197;
        // real block of 16
        const P t199 = c[2] * t190;
        // complex block of 2
        const P t200 = t156 + t199;
        const P t201 = t154 - t197;
        const P t202 = t199 - t156;
        // complex block of 2
        const P t203 = t185 + t193;
        const P t204 = t188 + t196;
        const P t205 = t185 - t193;
        const P t206 = t196 - t188;
        // complex block of 2
        const P t207 = t198 + t203;
        const P t208 = t200 + t204;
        const P t209 = t198 - t203;
        const P t210 = t204 - t200;
        // complex block of 2
        const P t211 = t201 + t206;
        const P t212 = t202 - t205;
        const P t213 = t201 - t206;
        const P t214 = t202 + t205;
        // skew block of 4
        const P t215 = t164 - t176;
        const P t216 = t164 + t176;
        const P t217 = c[2] * t216;
        const P t218 = t217 - t170;
        const P t219 = c[2] * t215;
        const P t220 = t158 + t219;
        const P t221 = t170 + t217;
        const P t222 = t158 - t219;
        // complex block of 17, multiplier 3
        const P t223 = t2 + t181;
        io.pair(0, t223);
        const P t224 = c[19] * t181;
        const P t225 = t2 - t224;
        const P t226 = shuffled<1, 0>(t208);
        const P t227 = P(-c[5], c[5]) * t226;
        const P t228 = shuffled<1, 0>(t207);
        const P t229 = P(c[6], -c[6]) * t228;
        const P t230 = t227 + t229;
        const P t231 = c[6] * t226;
        const P t232 = c[5] * t228;
        const P t233 = t231 + t232;
        const P t234 = c[7] * t220;
        const P t235 = c[8] * t221;
        const P t236 = t234 - t235;
        const P t237 = c[7] * t221;
        const P t238 = c[8] * t220;
        const P t239 = t237 + t238;
        const P t240 = shuffled<1, 0>(t214);
        const P t241 = P(-c[9], c[9]) * t240;
        const P t242 = shuffled<1, 0>(t213);
        const P t243 = P(c[10], -c[10]) * t242;
        const P t244 = t241 + t243;
        const P t245 = c[10] * t240;
        const P t246 = c[9] * t242;
        const P t247 = t245 + t246;
        const P t248 = c[11] * t178;
        const P t249 = c[12] * t180;
        const P t250 = t248 - t249;
        const P t251 = c[11] * t180;
        const P t252 = c[12] * t178;
        const P t253 = t251 + t252;
        const P t254 = shuffled<1, 0>(t212);
        const P t255 = P(-c[13], c[13]) * t254;
        const P t256 = shuffled<1, 0>(t211);
        const P t257 = P(c[14], -c[14]) * t256;
        const P t258 = t255 + t257;
        const P t259 = c[14] * t254;
        const P t260 = c[13] * t256;
        const P t261 = t259 + t260;
        const P t262 = c[15] * t222;
        const P t263 = c[16] * t218;
        const P t264 = t262 - t263;
        const P t265 = c[15] * t218;
        const P t266 = c[16] * t222;
        const P t267 = t265 + t266;
        const P t268 = shuffled<1, 0>(t210);
        const P t269 = P(-c[17], c[17]) * t268;
        const P t270 = shuffled<1, 0>(t209);
        const P t271 = P(c[18], -c[18]) * t270;
        const P t272 = t269 + t271;
        const P t273 = c[18] * t268;
        const P t274 = c[17] * t270;
        const P t275 = t273 + t274;
        const P t276 = c[20] * t182;
        // spectrum block of 2
        const P t277 = t225 - t276;
        const P t278 = t225 + t276;
        // spectrum block of 2
        const P t279 = t277 + t250;
        const P t280 = t277 - t250;
        // spectrum block of 2
        const P t281 = t278 + t253;
        const P t282 = t278 - t253;
        const P t283 = shuffled<0, 3>(t275, t233);
        const P t284 = shuffled<0, 3>(t233, t275);
        // complex block of 2
        const P t285 = t283 - t284;
        const P t286 = t230 + t272;
        const P t287 = t233 + t275;
        const P t288 = t230 - t272;
        // complex block of 2
        const P t289 = t261 + t247;
        const P t290 = t258 + t244;
        const P t291 = shuffled<0, 3>(t261, t247);
        const P t292 = shuffled<0, 3>(t247, t261);
        const P t293 = t291 - t292;
        const P t294 = t258 - t244;
        const P t295 = flipped<0, 1>(t289);
        // complex block of 2
        const P t296 = t285 + t295;
        const P t297 = t286 + t290;
        const P t298 = t285 - t295;
        const P t299 = t286 - t290;
        const P t300 = flipped<1, 0>(t287);
        // complex block of 2
        const P t301 = t300 + t294;
        const P t302 = t288 - t293;
        const P t303 = flipped<0, 1>(t294);
        const P t304 = t287 + t303;
        const P t305 = t288 + t293;
        // spectrum block of 16
        const P t306 = c[0] * t302;
        const P t307 = c[1] * t301;
        const P t308 = t306 - t307;
        const P t309 = c[0] * t301;
        const P t310 = c[1] * t302;
        const P t311 = t309 + t310;
        const P t312 = t299 + t298;
        const P t313 = t298 - t299;
        const P t314 = c[1] * t305;
        const P t315 = P(c[0], -c[0]) * t304;
        const P t316 = t314 + t315;
        const P t317 = P(-c[1], c[1]) * t304;
        const P t318 = c[0] * t305;
        const P t319 = t317 + t318;
        // mirrored skew block of 4
        const P t320 = t236 - t264;
        const P t321 = t239 + t267;
        const P t322 = t236 + t264;
        const P t323 = c[2] * t320;
        const P t324 = c[2] * t321;
        const P t325 = t323 + t324;
        const P t326 = t267 - t239;
        const P t327 = t323 - t324;
        // spectrum block of 2
        const P t328 = t279 + t322;
        const P t329 = t279 - t322;
        // spectrum block of 2
        const P t330 = t328 + t297;
        io.pair(3, t330);
        const P t331 = t328 - t297;
        io.pair(48, t331);
        // spectrum block of 2
        const P t332 = t329 - t296;
        io.pair(12, t332);
        const P t333 = t329 + t296;
        io.pair(39, t333);
        // spectrum block of 2
        const P t334 = t281 + t325;
        const P t335 = t281 - t325;
        // spectrum block of 2
        const P t336 = t334 + t308;
        io.pair(18, t336);
        const P t337 = t334 - t308;
        io.pair(33, t337);
        // spectrum block of 2
        const P t338 = t335 - t311;
        io.pair(21, t338);
        const P t339 = t335 + t311;
        io.pair(30, t339);
        // spectrum block of 2
        const P t340 = t280 - t326;
        const P t341 = t280 + t326;
        // spectrum block of 16
        const P t342 = c[2] * t313;
        // spectrum block of 2
        const P t343 = t340 - t342;
        io.pair(6, t343);
        const P t344 = t340 + t342;
        io.pair(45, t344);
        // spectrum block of 16
        const P t345 = c[2] * t312;
        // spectrum block of 2
        const P t346 = t341 - t345;
        io.pair(24, t346);
        const P t347 = t341 + t345;
        io.pair(27, t347);
        // spectrum block of 2
        const P t348 = t282 - t327;
        const P t349 = t282 + t327;
        // spectrum block of 2
        const P t350 = t348 + t316;
        io.pair(36, t350);
        const P t351 = t348 - t316;
        io.pair(15, t351);
        // spectrum block of 2
        const P t352 = t349 - t319;
        io.pair(42, t352);
        const P t353 = t349 + t319;
        io.pair(9, t353);
        // real block of 2
        const P t354 = t17 + t152;
        const P t355 = t17 - t152;
        // real block of 2
        const P t356 = t125 + t44;
        const P t357 = t125 - t44;
        // real block of 2
        const P t358 = t354 + t356;
        const P t359 = t354 - t356;
        // real block of 2
        const P t360 = t35 + t134;
        const P t361 = t35 - t134;
        // real block of 2
        const P t362 = t53 + t116;
        const P t363 = t53 - t116;
        // real block of 2
        const P t364 = t360 + t362;
        const P t365 = t360 - t362;
        // real block of 2
        const P t366 = t89 + t80;
        const P t367 = t89 - t80;
        // real block of 2
        const P t368 = t143 + t26;
        const P t369 = t143 - t26;
        // real block of 2
        const P t370 = t366 + t368;
        const P t371 = t366 - t368;
        // real block of 2
        const P t372 = t98 + t71;
        const P t373 = t98 - t71;
        // real block of 2
        const P t374 = t107 + t62;
        const P t375 = t107 - t62;
        // real block of 2
        const P t376 = t372 + t374;
        const P t377 = t372 - t374;
        // real block of 2
        const P t378 = t358 + t370;
        const P t379 = t358 - t370;
        // real block of 2
        const P t380 = t364 + t376;
        const P t381 = t364 - t376;
        // real block of 2
        const P t382 = t378 + t380;
        const P t383 = t378 - t380;
        // real block of 16
        const P t384 = c[0] * t361;
        const P t385 = c[1] * t363;
        const P t386 = t384 - t385;
        const P t387 = c[0] * t363;
        const P t388 = c[1] * t361;
        const P t389 = t387 + t388;
        const P t390 = t367 - t369;
        const P t391 = t369 + t367;
        const P t392 = c[1] * t373;
        const P t393 = c[0] * t375;
        const P t394 = t392 - t393;
        const P t395 = c[1] * t375;
        const P t396 = c[0] * t373;
        const P t397 = t395 + t396;
        const P t398 = c[2] * t390;
        // complex block of 2
        const P t399 = t355 + t398;
        // real block of 16
        const P t400 = c[2] * t391;
        // complex block of 2
        const P t401 = t357 + t400;
        const P t402 = t355 - t398;
        const P t403 = t400 - t357;
        // complex block of 2
        const P t404 = t386 + t394;
        const P t405 = t389 + t397;
        const P t406 = t386 - t394;
        const P t407 = t397 - t389;
        // complex block of 2
        const P t408 = t399 + t404;
        const P t409 = t401 + t405;
        const P t410 = t399 - t404;
        const P t411 = t405 - t401;
        // complex block of 2
        const P t412 = t402 + t407;
        const P t413 = t403 - t406;
        const P t414 = t402 - t407;
        const P t415 = t403 + t406;
        // skew block of 4
        const P t416 = t365 - t377;
        const P t417 = t365 + t377;
        const P t418 = c[2] * t417;
        const P t419 = t418 - t371;
        const P t420 = c[2] * t416;
        const P t421 = t359 + t420;
        const P t422 = t371 + t418;
        const P t423 = t359 - t420;
        // complex block of 17, multiplier 3
        const P t424 = t8 + t382;
        io.pair(17, t424);
        const P t425 = c[19] * t382;
        const P t426 = t8 - t425;
        const P t427 = shuffled<1, 0>(t409);
        const P t428 = P(-c[5], c[5]) * t427;
        const P t429 = shuffled<1, 0>(t408);
        const P t430 = P(c[6], -c[6]) * t429;
        const P t431 = t428 + t430;
        const P t432 = c[6] * t427;
        const P t433 = c[5] * t429;
        const P t434 = t432 + t433;
        const P t435 = c[7] * t421;
        const P t436 = c[8] * t422;
        const P t437 = t435 - t436;
        const P t438 = c[7] * t422;
        const P t439 = c[8] * t421;
        const P t440 = t438 + t439;
        const P t441 = shuffled<1, 0>(t415);
        const P t442 = P(-c[9], c[9]) * t441;
        const P t443 = shuffled<1, 0>(t414);
        const P t444 = P(c[10], -c[10]) * t443;
        const P t445 = t442 + t444;
        const P t446 = c[10] * t441;
        const P t447 = c[9] * t443;
        const P t448 = t446 + t447;
        const P t449 = c[11] * t379;
        const P t450 = c[12] * t381;
        const P t451 = t449 - t450;
        const P t452 = c[11] * t381;
        const P t453 = c[12] * t379;
        const P t454 = t452 + t453;
        const P t455 = shuffled<1, 0>(t413);
        const P t456 = P(-c[13], c[13]) * t455;
        const P t457 = shuffled<1, 0>(t412);
        const P t458 = P(c[14], -c[14]) * t457;
        const P t459 = t456 + t458;
        const P t460 = c[14] * t455;
        const P t461 = c[13] * t457;
        const P t462 = t460 + t461;
        const P t463 = c[15] * t423;
        const P t464 = c[16] * t419;
        const P t465 = t463 - t464;
        const P t466 = c[15] * t419;
        const P t467 = c[16] * t423;
        const P t468 = t466 + t467;
        const P t469 = shuffled<1, 0>(t411);
        const P t470 = P(-c[17], c[17]) * t469;
        const P t471 = shuffled<1, 0>(t410);
        const P t472 = P(c[18], -c[18]) * t471;
        const P t473 = t470 + t472;
        const P t474 = c[18] * t469;
        const P t475 = c[17] * t471;
        const P t476 = t474 + t475;
        const P t477 = c[20] * t383;
        // spectrum block of 2
        const P t478 = t426 - t477;
        const P t479 = t426 + t477;
        // spectrum block of 2
        const P t480 = t478 + t451;
        const P t481 = t478 - t451;
        // spectrum block of 2
        const P t482 = t479 + t454;
        const P t483 = t479 - t454;
        const P t484 = shuffled<0, 3>(t476, t434);
        const P t485 = shuffled<0, 3>(t434, t476);
        // complex block of 2
        const P t486 = t484 - t485;
        const P t487 = t431 + t473;
        const P t488 = t434 + t476;
        const P t489 = t431 - t473;
        // complex block of 2
        const P t490 = t462 + t448;
        const P t491 = t459 + t445;
        const P t492 = shuffled<0, 3>(t462, t448);
        const P t493 = shuffled<0, 3>(t448, t462);
        const P t494 = t492 - t493;
        const P t495 = t459 - t445;
        const P t496 = flipped<0, 1>(t490);
        // complex block of 2
        const P t497 = t486 + t496;
        const P t498 = t487 + t491;
        const P t499 = t486 - t496;
        const P t500 = t487 - t491;
        const P t501 = flipped<1, 0>(t488);
        // complex block of 2
        const P t502 = t501 + t495;
        const P t503 = t489 - t494;
        const P t504 = flipped<0, 1>(t495);
        const P t505 = t488 + t504;
        const P t506 = t489 + t494;
        // spectrum block of 16
        const P t507 = c[0] * t503;
        const P t508 = c[1] * t502;
        const P t509 = t507 - t508;
        const P t510 = c[0] * t502;
        const P t511 = c[1] * t503;
        const P t512 = t510 + t511;
        const P t513 = t500 + t499;
        const P t514 = t499 - t500;
        const P t515 = c[1] * t506;
        const P t516 = P(c[0], -c[0]) * t505;
        const P t517 = t515 + t516;
        const P t518 = P(-c[1], c[1]) * t505;
        const P t519 = c[0] * t506;
        const P t520 = t518 + t519;
        // mirrored skew block of 4
        const P t521 = t437 - t465;
        const P t522 = t440 + t468;
        const P t523 = t437 + t465;
        const P t524 = c[2] * t521;
        const P t525 = c[2] * t522;
        const P t526 = t524 + t525;
        const P t527 = t468 - t440;
        const P t528 = t524 - t525;
        // spectrum block of 2
        const P t529 = t480 + t523;
        const P t530 = t480 - t523;
        // spectrum block of 2
        const P t531 = t529 + t498;
        io.pair(20, t531);
        const P t532 = t529 - t498;
        io.pair(14, t532);
        // spectrum block of 2
        const P t533 = t530 - t497;
        io.pair(29, t533);
        const P t534 = t530 + t497;
        io.pair(5, t534);
        // spectrum block of 2
        const P t535 = t482 + t526;
        const P t536 = t482 - t526;
        // spectrum block of 2
        const P t537 = t535 + t509;
        io.pair(35, t537);
        const P t538 = t535 - t509;
        io.pair(50, t538);
        // spectrum block of 2
        const P t539 = t536 - t512;
        io.pair(38, t539);
        const P t540 = t536 + t512;
        io.pair(47, t540);
        // spectrum block of 2
        const P t541 = t481 - t527;
        const P t542 = t481 + t527;
        // spectrum block of 16
        const P t543 = c[2] * t514;
        // spectrum block of 2
        const P t544 = t541 - t543;
        io.pair(23, t544);
        const P t545 = t541 + t543;
        io.pair(11, t545);
        // spectrum block of 16
        const P t546 = c[2] * t513;
        // spectrum block of 2
        const P t547 = t542 - t546;
        io.pair(41, t547);
        const P t548 = t542 + t546;
        io.pair(44, t548);
        // spectrum block of 2
        const P t549 = t483 - t528;
        const P t550 = t483 + t528;
        // spectrum block of 2
        const P t551 = t549 + t517;
        io.pair(2, t551);
        const P t552 = t549 - t517;
        io.pair(32, t552);
        // spectrum block of 2
        const P t553 = t550 - t520;
        io.pair(8, t553);
        const P t554 = t550 + t520;
        io.pair(26, t554);
        // real block of 2
        const P t555 = t16 + t151;
        const P t556 = t16 - t151;
        // real block of 2
        const P t557 = t124 + t43;
        const P t558 = t124 - t43;
        // real block of 2
        const P t559 = t555 + t557;
        const P t560 = t555 - t557;
        // real block of 2
        const P t561 = t34 + t133;
        const P t562 = t34 - t133;
        // real block of 2
        const P t563 = t52 + t115;
        const P t564 = t52 - t115;
        // real block of 2
        const P t565 = t561 + t563;
        const P t566 = t561 - t563;
        // real block of 2
        const P t567 = t88 + t79;
        const P t568 = t88 - t79;
        // real block of 2
        const P t569 = t142 + t25;
        const P t570 = t142 - t25;
        // real block of 2
        const P t571 = t567 + t569;
        const P t572 = t567 - t569;
        // real block of 2
        const P t573 = t97 + t70;
        const P t574 = t97 - t70;
        // real block of 2
        const P t575 = t106 + t61;
        const P t576 = t106 - t61;
        // real block of 2
        const P t577 = t573 + t575;
        const P t578 = t573 - t575;
        // real block of 2
        const P t579 = t559 + t571;
        const P t580 = t559 - t571;
        // real block of 2
        const P t581 = t565 + t577;
        const P t582 = t565 - t577;
        // real block of 2
        const P t583 = t579 + t581;
        const P t584 = t579 - t581;
        // real block of 16
        const P t585 = c[0] * t562;
        const P t586 = c[1] * t564;
        const P t587 = t585 - t586;
        const P t588 = c[0] * t564;
        const P t589 = c[1] * t562;
        const P t590 = t588 + t589;
        const P t591 = t568 - t570;
        const P t592 = t570 + t568;
        const P t593 = c[1] * t574;
        const P t594 = c[0] * t576;
        const P t595 = t593 - t594;
        const P t596 = c[1] * t576;
        const P t597 = c[0] * t574;
        const P t598 = t596 + t597;
        const P t599 = c[2] * t591;
        // complex block of 2
        const P t600 = t556 + t599;
        // real block of 16
        const P t601 = c[2] * t592;
        // complex block of 2
        const P t602 = t558 + t601;
        const P t603 = t556 - t599;
        const P t604 = t601 - t558;
        // complex block of 2
        const P t605 = t587 + t595;
        const P t606 = t590 + t598;
        const P t607 = t587 - t595;
        const P t608 = t598 - t590;
        // complex block of 2
        const P t609 = t600 + t605;
        const P t610 = t602 + t606;
        const P t611 = t600 - t605;
        const P t612 = t606 - t602;
        // complex block of 2
        const P t613 = t603 + t608;
        const P t614 = t604 - t607;
        const P t615 = t603 - t608;
        const P t616 = t604 + t607;
        // skew block of 4
        const P t617 = t566 - t578;
        const P t618 = t566 + t578;
        const P t619 = c[2] * t618;
        const P t620 = t619 - t572;
        const P t621 = c[2] * t617;
        const P t622 = t560 + t621;
        const P t623 = t572 + t619;
        const P t624 = t560 - t621;
        // complex block of 17, multiplier 3
        const P t625 = t7 + t583;
        io.pair(34, t625);
        const P t626 = c[19] * t583;
        const P t627 = t7 - t626;
        const P t628 = shuffled<1, 0>(t610);
        const P t629 = P(-c[5], c[5]) * t628;
        const P t630 = shuffled<1, 0>(t609);
        const P t631 = P(c[6], -c[6]) * t630;
        const P t632 = t629 + t631;
        const P t633 = c[6] * t628;
        const P t634 = c[5] * t630;
        const P t635 = t633 + t634;
        const P t636 = c[7] * t622;
        const P t637 = c[8] * t623;
        const P t638 = t636 - t637;
        const P t639 = c[7] * t623;
        const P t640 = c[8] * t622;
        const P t641 = t639 + t640;
        const P t642 = shuffled<1, 0>(t616);
        const P t643 = P(-c[9], c[9]) * t642;
        const P t644 = shuffled<1, 0>(t615);
        const P t645 = P(c[10], -c[10]) * t644;
        const P t646 = t643 + t645;
        const P t647 = c[10] * t642;
        const P t648 = c[9] * t644;
        const P t649 = t647 + t648;
        const P t650 = c[11] * t580;
        const P t651 = c[12] * t582;
        const P t652 = t650 - t651;
        const P t653 = c[11] * t582;
        const P t654 = c[12] * t580;
        const P t655 = t653 + t654;
        const P t656 = shuffled<1, 0>(t614);
        const P t657 = P(-c[13], c[13]) * t656;
        const P t658 = shuffled<1, 0>(t613);
        const P t659 = P(c[14], -c[14]) * t658;
        const P t660 = t657 + t659;
        const P t661 = c[14] * t656;
        const P t662 = c[13] * t658;
        const P t663 = t661 + t662;
        const P t664 = c[15] * t624;
        const P t665 = c[16] * t620;
        const P t666 = t664 - t665;
        const P t667 = c[15] * t620;
        const P t668 = c[16] * t624;
        const P t669 = t667 + t668;
        const P t670 = shuffled<1, 0>(t612);
        const P t671 = P(-c[17], c[17]) * t670;
        const P t672 = shuffled<1, 0>(t611);
        const P t673 = P(c[18], -c[18]) * t672;
        const P t674 = t671 + t673;
        const P t675 = c[18] * t670;
        const P t676 = c[17] * t672;
        const P t677 = t675 + t676;
        const P t678 = c[20] * t584;
        // spectrum block of 2
        const P t679 = t627 - t678;
        const P t680 = t627 + t678;
        // spectrum block of 2
        const P t681 = t679 + t652;
        const P t682 = t679 - t652;
        // spectrum block of 2
        const P t683 = t680 + t655;
        const P t684 = t680 - t655;
        const P t685 = shuffled<0, 3>(t677, t635);
        const P t686 = shuffled<0, 3>(t635, t677);
        // complex block of 2
        const P t687 = t685 - t686;
        const P t688 = t632 + t674;
        const P t689 = t635 + t677;
        const P t690 = t632 - t674;
        // complex block of 2
        const P t691 = t663 + t649;
        const P t692 = t660 + t646;
        const P t693 = shuffled<0, 3>(t663, t649);
        const P t694 = shuffled<0, 3>(t649, t663);
        const P t695 = t693 - t694;
        const P t696 = t660 - t646;
        const P t697 = flipped<0, 1>(t691);
        // complex block of 2
        const P t698 = t687 + t697;
        const P t699 = t688 + t692;
        const P t700 = t687 - t697;
        const P t701 = t688 - t692;
        const P t702 = flipped<1, 0>(t689);
        // complex block of 2
        const P t703 = t702 + t696;
        const P t704 = t690 - t695;
        const P t705 = flipped<0, 1>(t696);
        const P t706 = t689 + t705;
        const P t707 = t690 + t695;
        // spectrum block of 16
        const P t708 = c[0] * t704;
        const P t709 = c[1] * t703;
        const P t710 = t708 - t709;
        const P t711 = c[0] * t703;
        const P t712 = c[1] * t704;
        const P t713 = t711 + t712;
        const P t714 = t701 + t700;
        const P t715 = t700 - t701;
        const P t716 = c[1] * t707;
        const P t717 = P(c[0], -c[0]) * t706;
        const P t718 = t716 + t717;
        const P t719 = P(-c[1], c[1]) * t706;
        const P t720 = c[0] * t707;
        const P t721 = t719 + t720;
        // mirrored skew block of 4
        const P t722 = t638 - t666;
        const P t723 = t641 + t669;
        const P t724 = t638 + t666;
        const P t725 = c[2] * t722;
        const P t726 = c[2] * t723;
        const P t727 = t725 + t726;
        const P t728 = t669 - t641;
        const P t729 = t725 - t726;
        // spectrum block of 2
        const P t730 = t681 + t724;
        const P t731 = t681 - t724;
        // spectrum block of 2
        const P t732 = t730 + t699;
        io.pair(37, t732);
        const P t733 = t730 - t699;
        io.pair(31, t733);
        // spectrum block of 2
        const P t734 = t731 - t698;
        io.pair(46, t734);
        const P t735 = t731 + t698;
        io.pair(22, t735);
        // spectrum block of 2
        const P t736 = t683 + t727;
        const P t737 = t683 - t727;
        // spectrum block of 2
        const P t738 = t736 + t710;
        io.pair(1, t738);
        const P t739 = t736 - t710;
        io.pair(16, t739);
        // spectrum block of 2
        const P t740 = t737 - t713;
        io.pair(4, t740);
        const P t741 = t737 + t713;
        io.pair(13, t741);
        // spectrum block of 2
        const P t742 = t682 - t728;
        const P t743 = t682 + t728;
        // spectrum block of 16
        const P t744 = c[2] * t715;
        // spectrum block of 2
        const P t745 = t742 - t744;
        io.pair(40, t745);
        const P t746 = t742 + t744;
        io.pair(28, t746);
        // spectrum block of 16
        const P t747 = c[2] * t714;
        // spectrum block of 2
        const P t748 = t743 - t747;
        io.pair(7, t748);
        const P t749 = t743 + t747;
        io.pair(10, t749);
        // spectrum block of 2
        const P t750 = t684 - t729;
        const P t751 = t684 + t729;
        // spectrum block of 2
        const P t752 = t750 + t718;
        io.pair(19, t752);
        const P t753 = t750 - t718;
        io.pair(49, t753);
        // spectrum block of 2
        const P t754 = t751 - t721;
        io.pair(25, t754);
        const P t755 = t751 + t721;
        io.pair(43, t755);
    }
};

}  // namespace zulg
