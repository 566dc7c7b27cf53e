// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 45.
// Complex DFT of 45 points, prime-factor, order 9, 5; one complex number to a register.
// 196 sums, 148 differences, 172 products of registers, which do the 1122 steps of the graph, those with
// `scale` included; 68 shuffles, 28 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<45> {
    static constexpr int steps = 1122;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.30901699437494745,  // c[2]: cos 2 pi 1/5
        0.8090169943749475,  // c[3]: -cos 2 pi 3/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5877852522924731,  // c[5]: -sin 2 pi 3/5
        0.766044443118978,  // c[6]: cos 2 pi 1/9
        0.6427876096865394,  // c[7]: sin 2 pi 1/9
        0.3420201433256687,  // c[8]: -sin 2 pi 5/9
        0.9396926207859084,  // c[9]: -cos 2 pi 5/9
        0.17364817766693036,  // c[10]: cos 2 pi 2/9
        0.984807753012208,  // c[11]: sin 2 pi 2/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x15 = io.pair(15);
        const P x30 = io.pair(30);
        // complex block of 3, multiplier 2
        const P t0 = x15 + x30;
        const P t1 = x15 - x30;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[0] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[1], c[1]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x20 = io.pair(20);
        const P x35 = io.pair(35);
        // complex block of 3, multiplier 2
        const P t9 = x20 + x35;
        const P t10 = x20 - x35;
        const P x5 = io.pair(5);
        const P t11 = t9 + x5;
        const P t12 = c[0] * t9;
        const P t13 = x5 - t12;
        const P t14 = P(-c[1], c[1]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x25 = io.pair(25);
        const P x40 = io.pair(40);
        // complex block of 3, multiplier 2
        const P t18 = x25 + x40;
        const P t19 = x25 - x40;
        const P x10 = io.pair(10);
        const P t20 = t18 + x10;
        const P t21 = c[0] * t18;
        const P t22 = x10 - t21;
        const P t23 = P(-c[1], c[1]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        // complex block of 3, multiplier 2
        const P t27 = t11 + t20;
        const P t28 = t11 - t20;
        const P t29 = t27 + t2;
        const P t30 = c[0] * t27;
        const P t31 = t2 - t30;
        const P t32 = P(-c[1], c[1]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P t36 = shuffled<1, 0>(t17);
        // complex block of 9, multiplier 5
        const P t37 = c[8] * t36;
        const P t38 = P(c[9], -c[9]) * t17;
        const P t39 = t37 + t38;
        const P t40 = c[6] * t26;
        const P t41 = shuffled<1, 0>(t26);
        const P t42 = P(c[7], -c[7]) * t41;
        const P t43 = t40 + t42;
        const P t44 = flipped<1, 0>(t39);
        // complex block of 3, multiplier 2
        const P t45 = t44 + t43;
        const P t46 = flipped<0, 1>(t43);
        const P t47 = t39 + t46;
        const P t48 = t45 + t8;
        const P t49 = c[0] * t45;
        const P t50 = t8 - t49;
        const P t51 = c[1] * t47;
        const P t52 = shuffled<1, 0>(t51);
        const P t53 = t50 + t52;
        const P t54 = t50 - t52;
        // complex block of 9, multiplier 5
        const P t55 = c[6] * t16;
        const P t56 = shuffled<1, 0>(t16);
        const P t57 = P(c[7], -c[7]) * t56;
        const P t58 = t55 + t57;
        const P t59 = c[10] * t25;
        const P t60 = shuffled<1, 0>(t25);
        const P t61 = P(c[11], -c[11]) * t60;
        const P t62 = t59 + t61;
        // complex block of 3, multiplier 2
        const P t63 = t58 + t62;
        const P t64 = t58 - t62;
        const P t65 = t63 + t7;
        const P t66 = c[0] * t63;
        const P t67 = t7 - t66;
        const P t68 = P(-c[1], c[1]) * t64;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P x24 = io.pair(24);
        const P x39 = io.pair(39);
        // complex block of 3, multiplier 2
        const P t72 = x24 + x39;
        const P t73 = x24 - x39;
        const P x9 = io.pair(9);
        const P t74 = t72 + x9;
        const P t75 = c[0] * t72;
        const P t76 = x9 - t75;
        const P t77 = P(-c[1], c[1]) * t73;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = t76 + t78;
        const P t80 = t76 - t78;
        const P x29 = io.pair(29);
        const P x44 = io.pair(44);
        // complex block of 3, multiplier 2
        const P t81 = x29 + x44;
        const P t82 = x29 - x44;
        const P x14 = io.pair(14);
        const P t83 = t81 + x14;
        const P t84 = c[0] * t81;
        const P t85 = x14 - t84;
        const P t86 = P(-c[1], c[1]) * t82;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P x34 = io.pair(34);
        const P x4 = io.pair(4);
        // complex block of 3, multiplier 2
        const P t90 = x34 + x4;
        const P t91 = x34 - x4;
        const P x19 = io.pair(19);
        const P t92 = t90 + x19;
        const P t93 = c[0] * t90;
        const P t94 = x19 - t93;
        const P t95 = P(-c[1], c[1]) * t91;
        const P t96 = shuffled<1, 0>(t95);
        const P t97 = t94 + t96;
        const P t98 = t94 - t96;
        // complex block of 3, multiplier 2
        const P t99 = t83 + t92;
        const P t100 = t83 - t92;
        const P t101 = t99 + t74;
        const P t102 = c[0] * t99;
        const P t103 = t74 - t102;
        const P t104 = P(-c[1], c[1]) * t100;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = t103 + t105;
        const P t107 = t103 - t105;
        const P t108 = shuffled<1, 0>(t89);
        // complex block of 9, multiplier 5
        const P t109 = c[8] * t108;
        const P t110 = P(c[9], -c[9]) * t89;
        const P t111 = t109 + t110;
        const P t112 = c[6] * t98;
        const P t113 = shuffled<1, 0>(t98);
        const P t114 = P(c[7], -c[7]) * t113;
        const P t115 = t112 + t114;
        const P t116 = flipped<1, 0>(t111);
        // complex block of 3, multiplier 2
        const P t117 = t116 + t115;
        const P t118 = flipped<0, 1>(t115);
        const P t119 = t111 + t118;
        const P t120 = t117 + t80;
        const P t121 = c[0] * t117;
        const P t122 = t80 - t121;
        const P t123 = c[1] * t119;
        const P t124 = shuffled<1, 0>(t123);
        const P t125 = t122 + t124;
        const P t126 = t122 - t124;
        // complex block of 9, multiplier 5
        const P t127 = c[6] * t88;
        const P t128 = shuffled<1, 0>(t88);
        const P t129 = P(c[7], -c[7]) * t128;
        const P t130 = t127 + t129;
        const P t131 = c[10] * t97;
        const P t132 = shuffled<1, 0>(t97);
        const P t133 = P(c[11], -c[11]) * t132;
        const P t134 = t131 + t133;
        // complex block of 3, multiplier 2
        const P t135 = t130 + t134;
        const P t136 = t130 - t134;
        const P t137 = t135 + t79;
        const P t138 = c[0] * t135;
        const P t139 = t79 - t138;
        const P t140 = P(-c[1], c[1]) * t136;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = t139 + t141;
        const P t143 = t139 - t141;
        const P x33 = io.pair(33);
        const P x3 = io.pair(3);
        // complex block of 3, multiplier 2
        const P t144 = x33 + x3;
        const P t145 = x33 - x3;
        const P x18 = io.pair(18);
        const P t146 = t144 + x18;
        const P t147 = c[0] * t144;
        const P t148 = x18 - t147;
        const P t149 = P(-c[1], c[1]) * t145;
        const P t150 = shuffled<1, 0>(t149);
        const P t151 = t148 + t150;
        const P t152 = t148 - t150;
        const P x38 = io.pair(38);
        const P x8 = io.pair(8);
        // complex block of 3, multiplier 2
        const P t153 = x38 + x8;
        const P t154 = x38 - x8;
        const P x23 = io.pair(23);
        const P t155 = t153 + x23;
        const P t156 = c[0] * t153;
        const P t157 = x23 - t156;
        const P t158 = P(-c[1], c[1]) * t154;
        const P t159 = shuffled<1, 0>(t158);
        const P t160 = t157 + t159;
        const P t161 = t157 - t159;
        const P x43 = io.pair(43);
        const P x13 = io.pair(13);
        // complex block of 3, multiplier 2
        const P t162 = x43 + x13;
        const P t163 = x43 - x13;
        const P x28 = io.pair(28);
        const P t164 = t162 + x28;
        const P t165 = c[0] * t162;
        const P t166 = x28 - t165;
        const P t167 = P(-c[1], c[1]) * t163;
        const P t168 = shuffled<1, 0>(t167);
        const P t169 = t166 + t168;
        const P t170 = t166 - t168;
        // complex block of 3, multiplier 2
        const P t171 = t155 + t164;
        const P t172 = t155 - t164;
        const P t173 = t171 + t146;
        const P t174 = c[0] * t171;
        const P t175 = t146 - t174;
        const P t176 = P(-c[1], c[1]) * t172;
        const P t177 = shuffled<1, 0>(t176);
        const P t178 = t175 + t177;
        const P t179 = t175 - t177;
        const P t180 = shuffled<1, 0>(t161);
        // complex block of 9, multiplier 5
        const P t181 = c[8] * t180;
        const P t182 = P(c[9], -c[9]) * t161;
        const P t183 = t181 + t182;
        const P t184 = c[6] * t170;
        const P t185 = shuffled<1, 0>(t170);
        const P t186 = P(c[7], -c[7]) * t185;
        const P t187 = t184 + t186;
        const P t188 = flipped<1, 0>(t183);
        // complex block of 3, multiplier 2
        const P t189 = t188 + t187;
        const P t190 = flipped<0, 1>(t187);
        const P t191 = t183 + t190;
        const P t192 = t189 + t152;
        const P t193 = c[0] * t189;
        const P t194 = t152 - t193;
        const P t195 = c[1] * t191;
        const P t196 = shuffled<1, 0>(t195);
        const P t197 = t194 + t196;
        const P t198 = t194 - t196;
        // complex block of 9, multiplier 5
        const P t199 = c[6] * t160;
        const P t200 = shuffled<1, 0>(t160);
        const P t201 = P(c[7], -c[7]) * t200;
        const P t202 = t199 + t201;
        const P t203 = c[10] * t169;
        const P t204 = shuffled<1, 0>(t169);
        const P t205 = P(c[11], -c[11]) * t204;
        const P t206 = t203 + t205;
        // complex block of 3, multiplier 2
        const P t207 = t202 + t206;
        const P t208 = t202 - t206;
        const P t209 = t207 + t151;
        const P t210 = c[0] * t207;
        const P t211 = t151 - t210;
        const P t212 = P(-c[1], c[1]) * t208;
        const P t213 = shuffled<1, 0>(t212);
        const P t214 = t211 + t213;
        const P t215 = t211 - t213;
        const P x42 = io.pair(42);
        const P x12 = io.pair(12);
        // complex block of 3, multiplier 2
        const P t216 = x42 + x12;
        const P t217 = x42 - x12;
        const P x27 = io.pair(27);
        const P t218 = t216 + x27;
        const P t219 = c[0] * t216;
        const P t220 = x27 - t219;
        const P t221 = P(-c[1], c[1]) * t217;
        const P t222 = shuffled<1, 0>(t221);
        const P t223 = t220 + t222;
        const P t224 = t220 - t222;
        const P x2 = io.pair(2);
        const P x17 = io.pair(17);
        // complex block of 3, multiplier 2
        const P t225 = x2 + x17;
        const P t226 = x2 - x17;
        const P x32 = io.pair(32);
        const P t227 = t225 + x32;
        const P t228 = c[0] * t225;
        const P t229 = x32 - t228;
        const P t230 = P(-c[1], c[1]) * t226;
        const P t231 = shuffled<1, 0>(t230);
        const P t232 = t229 + t231;
        const P t233 = t229 - t231;
        const P x7 = io.pair(7);
        const P x22 = io.pair(22);
        // complex block of 3, multiplier 2
        const P t234 = x7 + x22;
        const P t235 = x7 - x22;
        const P x37 = io.pair(37);
        const P t236 = t234 + x37;
        const P t237 = c[0] * t234;
        const P t238 = x37 - t237;
        const P t239 = P(-c[1], c[1]) * t235;
        const P t240 = shuffled<1, 0>(t239);
        const P t241 = t238 + t240;
        const P t242 = t238 - t240;
        // complex block of 3, multiplier 2
        const P t243 = t227 + t236;
        const P t244 = t227 - t236;
        const P t245 = t243 + t218;
        const P t246 = c[0] * t243;
        const P t247 = t218 - t246;
        const P t248 = P(-c[1], c[1]) * t244;
        const P t249 = shuffled<1, 0>(t248);
        const P t250 = t247 + t249;
        const P t251 = t247 - t249;
        const P t252 = shuffled<1, 0>(t233);
        // complex block of 9, multiplier 5
        const P t253 = c[8] * t252;
        const P t254 = P(c[9], -c[9]) * t233;
        const P t255 = t253 + t254;
        const P t256 = c[6] * t242;
        const P t257 = shuffled<1, 0>(t242);
        const P t258 = P(c[7], -c[7]) * t257;
        const P t259 = t256 + t258;
        const P t260 = flipped<1, 0>(t255);
        // complex block of 3, multiplier 2
        const P t261 = t260 + t259;
        const P t262 = flipped<0, 1>(t259);
        const P t263 = t255 + t262;
        const P t264 = t261 + t224;
        const P t265 = c[0] * t261;
        const P t266 = t224 - t265;
        const P t267 = c[1] * t263;
        const P t268 = shuffled<1, 0>(t267);
        const P t269 = t266 + t268;
        const P t270 = t266 - t268;
        // complex block of 9, multiplier 5
        const P t271 = c[6] * t232;
        const P t272 = shuffled<1, 0>(t232);
        const P t273 = P(c[7], -c[7]) * t272;
        const P t274 = t271 + t273;
        const P t275 = c[10] * t241;
        const P t276 = shuffled<1, 0>(t241);
        const P t277 = P(c[11], -c[11]) * t276;
        const P t278 = t275 + t277;
        // complex block of 3, multiplier 2
        const P t279 = t274 + t278;
        const P t280 = t274 - t278;
        const P t281 = t279 + t223;
        const P t282 = c[0] * t279;
        const P t283 = t223 - t282;
        const P t284 = P(-c[1], c[1]) * t280;
        const P t285 = shuffled<1, 0>(t284);
        const P t286 = t283 + t285;
        const P t287 = t283 - t285;
        const P x6 = io.pair(6);
        const P x21 = io.pair(21);
        // complex block of 3, multiplier 2
        const P t288 = x6 + x21;
        const P t289 = x6 - x21;
        const P x36 = io.pair(36);
        const P t290 = t288 + x36;
        const P t291 = c[0] * t288;
        const P t292 = x36 - t291;
        const P t293 = P(-c[1], c[1]) * t289;
        const P t294 = shuffled<1, 0>(t293);
        const P t295 = t292 + t294;
        const P t296 = t292 - t294;
        const P x11 = io.pair(11);
        const P x26 = io.pair(26);
        // complex block of 3, multiplier 2
        const P t297 = x11 + x26;
        const P t298 = x11 - x26;
        const P x41 = io.pair(41);
        const P t299 = t297 + x41;
        const P t300 = c[0] * t297;
        const P t301 = x41 - t300;
        const P t302 = P(-c[1], c[1]) * t298;
        const P t303 = shuffled<1, 0>(t302);
        const P t304 = t301 + t303;
        const P t305 = t301 - t303;
        const P x16 = io.pair(16);
        const P x31 = io.pair(31);
        // complex block of 3, multiplier 2
        const P t306 = x16 + x31;
        const P t307 = x16 - x31;
        const P x1 = io.pair(1);
        const P t308 = t306 + x1;
        const P t309 = c[0] * t306;
        const P t310 = x1 - t309;
        const P t311 = P(-c[1], c[1]) * t307;
        const P t312 = shuffled<1, 0>(t311);
        const P t313 = t310 + t312;
        const P t314 = t310 - t312;
        // complex block of 3, multiplier 2
        const P t315 = t299 + t308;
        const P t316 = t299 - t308;
        const P t317 = t315 + t290;
        const P t318 = c[0] * t315;
        const P t319 = t290 - t318;
        const P t320 = P(-c[1], c[1]) * t316;
        const P t321 = shuffled<1, 0>(t320);
        const P t322 = t319 + t321;
        const P t323 = t319 - t321;
        const P t324 = shuffled<1, 0>(t305);
        // complex block of 9, multiplier 5
        const P t325 = c[8] * t324;
        const P t326 = P(c[9], -c[9]) * t305;
        const P t327 = t325 + t326;
        const P t328 = c[6] * t314;
        const P t329 = shuffled<1, 0>(t314);
        const P t330 = P(c[7], -c[7]) * t329;
        const P t331 = t328 + t330;
        const P t332 = flipped<1, 0>(t327);
        // complex block of 3, multiplier 2
        const P t333 = t332 + t331;
        const P t334 = flipped<0, 1>(t331);
        const P t335 = t327 + t334;
        const P t336 = t333 + t296;
        const P t337 = c[0] * t333;
        const P t338 = t296 - t337;
        const P t339 = c[1] * t335;
        const P t340 = shuffled<1, 0>(t339);
        const P t341 = t338 + t340;
        const P t342 = t338 - t340;
        // complex block of 9, multiplier 5
        const P t343 = c[6] * t304;
        const P t344 = shuffled<1, 0>(t304);
        const P t345 = P(c[7], -c[7]) * t344;
        const P t346 = t343 + t345;
        const P t347 = c[10] * t313;
        const P t348 = shuffled<1, 0>(t313);
        const P t349 = P(c[11], -c[11]) * t348;
        const P t350 = t347 + t349;
        // complex block of 3, multiplier 2
        const P t351 = t346 + t350;
        const P t352 = t346 - t350;
        const P t353 = t351 + t295;
        const P t354 = c[0] * t351;
        const P t355 = t295 - t354;
        const P t356 = P(-c[1], c[1]) * t352;
        const P t357 = shuffled<1, 0>(t356);
        const P t358 = t355 + t357;
        const P t359 = t355 - t357;
        // complex block of 5, multiplier 4
        const P t360 = t101 + t317;
        const P t361 = t101 - t317;
        const P t362 = t245 + t173;
        const P t363 = t245 - t173;
        const P t364 = t360 + t362;
        const P t365 = t364 + t29;
        io.pair(0, t365);
        const P t366 = c[2] * t360;
        const P t367 = c[3] * t362;
        const P t368 = t366 - t367;
        const P t369 = t368 + t29;
        const P t370 = c[4] * t361;
        const P t371 = c[5] * t363;
        const P t372 = t370 - t371;
        const P t373 = shuffled<1, 0>(t372);
        const P t374 = flipped<0, 1>(t373);
        const P t375 = t369 + t374;
        io.pair(36, t375);
        const P t376 = t369 - t374;
        io.pair(9, t376);
        const P t377 = c[3] * t360;
        const P t378 = t29 - t377;
        const P t379 = c[2] * t362;
        const P t380 = t378 + t379;
        const P t381 = c[5] * t361;
        const P t382 = c[4] * t363;
        const P t383 = t381 + t382;
        const P t384 = shuffled<1, 0>(t383);
        const P t385 = flipped<0, 1>(t384);
        const P t386 = t380 + t385;
        io.pair(27, t386);
        const P t387 = t380 - t385;
        io.pair(18, t387);
        // complex block of 5, multiplier 4
        const P t388 = t120 + t336;
        const P t389 = t120 - t336;
        const P t390 = t264 + t192;
        const P t391 = t264 - t192;
        const P t392 = t388 + t390;
        const P t393 = t392 + t48;
        io.pair(5, t393);
        const P t394 = c[2] * t388;
        const P t395 = c[3] * t390;
        const P t396 = t394 - t395;
        const P t397 = t396 + t48;
        const P t398 = c[4] * t389;
        const P t399 = c[5] * t391;
        const P t400 = t398 - t399;
        const P t401 = shuffled<1, 0>(t400);
        const P t402 = flipped<0, 1>(t401);
        const P t403 = t397 + t402;
        io.pair(41, t403);
        const P t404 = t397 - t402;
        io.pair(14, t404);
        const P t405 = c[3] * t388;
        const P t406 = t48 - t405;
        const P t407 = c[2] * t390;
        const P t408 = t406 + t407;
        const P t409 = c[5] * t389;
        const P t410 = c[4] * t391;
        const P t411 = t409 + t410;
        const P t412 = shuffled<1, 0>(t411);
        const P t413 = flipped<0, 1>(t412);
        const P t414 = t408 + t413;
        io.pair(32, t414);
        const P t415 = t408 - t413;
        io.pair(23, t415);
        // complex block of 5, multiplier 4
        const P t416 = t137 + t353;
        const P t417 = t137 - t353;
        const P t418 = t281 + t209;
        const P t419 = t281 - t209;
        const P t420 = t416 + t418;
        const P t421 = t420 + t65;
        io.pair(10, t421);
        const P t422 = c[2] * t416;
        const P t423 = c[3] * t418;
        const P t424 = t422 - t423;
        const P t425 = t424 + t65;
        const P t426 = c[4] * t417;
        const P t427 = c[5] * t419;
        const P t428 = t426 - t427;
        const P t429 = shuffled<1, 0>(t428);
        const P t430 = flipped<0, 1>(t429);
        const P t431 = t425 + t430;
        io.pair(1, t431);
        const P t432 = t425 - t430;
        io.pair(19, t432);
        const P t433 = c[3] * t416;
        const P t434 = t65 - t433;
        const P t435 = c[2] * t418;
        const P t436 = t434 + t435;
        const P t437 = c[5] * t417;
        const P t438 = c[4] * t419;
        const P t439 = t437 + t438;
        const P t440 = shuffled<1, 0>(t439);
        const P t441 = flipped<0, 1>(t440);
        const P t442 = t436 + t441;
        io.pair(37, t442);
        const P t443 = t436 - t441;
        io.pair(28, t443);
        // complex block of 5, multiplier 4
        const P t444 = t107 + t323;
        const P t445 = t107 - t323;
        const P t446 = t251 + t179;
        const P t447 = t251 - t179;
        const P t448 = t444 + t446;
        const P t449 = t448 + t35;
        io.pair(15, t449);
        const P t450 = c[2] * t444;
        const P t451 = c[3] * t446;
        const P t452 = t450 - t451;
        const P t453 = t452 + t35;
        const P t454 = c[4] * t445;
        const P t455 = c[5] * t447;
        const P t456 = t454 - t455;
        const P t457 = shuffled<1, 0>(t456);
        const P t458 = flipped<0, 1>(t457);
        const P t459 = t453 + t458;
        io.pair(6, t459);
        const P t460 = t453 - t458;
        io.pair(24, t460);
        const P t461 = c[3] * t444;
        const P t462 = t35 - t461;
        const P t463 = c[2] * t446;
        const P t464 = t462 + t463;
        const P t465 = c[5] * t445;
        const P t466 = c[4] * t447;
        const P t467 = t465 + t466;
        const P t468 = shuffled<1, 0>(t467);
        const P t469 = flipped<0, 1>(t468);
        const P t470 = t464 + t469;
        io.pair(42, t470);
        const P t471 = t464 - t469;
        io.pair(33, t471);
        // complex block of 5, multiplier 4
        const P t472 = t126 + t342;
        const P t473 = t126 - t342;
        const P t474 = t270 + t198;
        const P t475 = t270 - t198;
        const P t476 = t472 + t474;
        const P t477 = t476 + t54;
        io.pair(20, t477);
        const P t478 = c[2] * t472;
        const P t479 = c[3] * t474;
        const P t480 = t478 - t479;
        const P t481 = t480 + t54;
        const P t482 = c[4] * t473;
        const P t483 = c[5] * t475;
        const P t484 = t482 - t483;
        const P t485 = shuffled<1, 0>(t484);
        const P t486 = flipped<0, 1>(t485);
        const P t487 = t481 + t486;
        io.pair(11, t487);
        const P t488 = t481 - t486;
        io.pair(29, t488);
        const P t489 = c[3] * t472;
        const P t490 = t54 - t489;
        const P t491 = c[2] * t474;
        const P t492 = t490 + t491;
        const P t493 = c[5] * t473;
        const P t494 = c[4] * t475;
        const P t495 = t493 + t494;
        const P t496 = shuffled<1, 0>(t495);
        const P t497 = flipped<0, 1>(t496);
        const P t498 = t492 + t497;
        io.pair(2, t498);
        const P t499 = t492 - t497;
        io.pair(38, t499);
        // complex block of 5, multiplier 4
        const P t500 = t143 + t359;
        const P t501 = t143 - t359;
        const P t502 = t287 + t215;
        const P t503 = t287 - t215;
        const P t504 = t500 + t502;
        const P t505 = t504 + t71;
        io.pair(25, t505);
        const P t506 = c[2] * t500;
        const P t507 = c[3] * t502;
        const P t508 = t506 - t507;
        const P t509 = t508 + t71;
        const P t510 = c[4] * t501;
        const P t511 = c[5] * t503;
        const P t512 = t510 - t511;
        const P t513 = shuffled<1, 0>(t512);
        const P t514 = flipped<0, 1>(t513);
        const P t515 = t509 + t514;
        io.pair(16, t515);
        const P t516 = t509 - t514;
        io.pair(34, t516);
        const P t517 = c[3] * t500;
        const P t518 = t71 - t517;
        const P t519 = c[2] * t502;
        const P t520 = t518 + t519;
        const P t521 = c[5] * t501;
        const P t522 = c[4] * t503;
        const P t523 = t521 + t522;
        const P t524 = shuffled<1, 0>(t523);
        const P t525 = flipped<0, 1>(t524);
        const P t526 = t520 + t525;
        io.pair(7, t526);
        const P t527 = t520 - t525;
        io.pair(43, t527);
        // complex block of 5, multiplier 4
        const P t528 = t106 + t322;
        const P t529 = t106 - t322;
        const P t530 = t250 + t178;
        const P t531 = t250 - t178;
        const P t532 = t528 + t530;
        const P t533 = t532 + t34;
        io.pair(30, t533);
        const P t534 = c[2] * t528;
        const P t535 = c[3] * t530;
        const P t536 = t534 - t535;
        const P t537 = t536 + t34;
        const P t538 = c[4] * t529;
        const P t539 = c[5] * t531;
        const P t540 = t538 - t539;
        const P t541 = shuffled<1, 0>(t540);
        const P t542 = flipped<0, 1>(t541);
        const P t543 = t537 + t542;
        io.pair(21, t543);
        const P t544 = t537 - t542;
        io.pair(39, t544);
        const P t545 = c[3] * t528;
        const P t546 = t34 - t545;
        const P t547 = c[2] * t530;
        const P t548 = t546 + t547;
        const P t549 = c[5] * t529;
        const P t550 = c[4] * t531;
        const P t551 = t549 + t550;
        const P t552 = shuffled<1, 0>(t551);
        const P t553 = flipped<0, 1>(t552);
        const P t554 = t548 + t553;
        io.pair(12, t554);
        const P t555 = t548 - t553;
        io.pair(3, t555);
        // complex block of 5, multiplier 4
        const P t556 = t125 + t341;
        const P t557 = t125 - t341;
        const P t558 = t269 + t197;
        const P t559 = t269 - t197;
        const P t560 = t556 + t558;
        const P t561 = t560 + t53;
        io.pair(35, t561);
        const P t562 = c[2] * t556;
        const P t563 = c[3] * t558;
        const P t564 = t562 - t563;
        const P t565 = t564 + t53;
        const P t566 = c[4] * t557;
        const P t567 = c[5] * t559;
        const P t568 = t566 - t567;
        const P t569 = shuffled<1, 0>(t568);
        const P t570 = flipped<0, 1>(t569);
        const P t571 = t565 + t570;
        io.pair(26, t571);
        const P t572 = t565 - t570;
        io.pair(44, t572);
        const P t573 = c[3] * t556;
        const P t574 = t53 - t573;
        const P t575 = c[2] * t558;
        const P t576 = t574 + t575;
        const P t577 = c[5] * t557;
        const P t578 = c[4] * t559;
        const P t579 = t577 + t578;
        const P t580 = shuffled<1, 0>(t579);
        const P t581 = flipped<0, 1>(t580);
        const P t582 = t576 + t581;
        io.pair(17, t582);
        const P t583 = t576 - t581;
        io.pair(8, t583);
        // complex block of 5, multiplier 4
        const P t584 = t142 + t358;
        const P t585 = t142 - t358;
        const P t586 = t286 + t214;
        const P t587 = t286 - t214;
        const P t588 = t584 + t586;
        const P t589 = t588 + t70;
        io.pair(40, t589);
        const P t590 = c[2] * t584;
        const P t591 = c[3] * t586;
        const P t592 = t590 - t591;
        const P t593 = t592 + t70;
        const P t594 = c[4] * t585;
        const P t595 = c[5] * t587;
        const P t596 = t594 - t595;
        const P t597 = shuffled<1, 0>(t596);
        const P t598 = flipped<0, 1>(t597);
        const P t599 = t593 + t598;
        io.pair(31, t599);
        const P t600 = t593 - t598;
        io.pair(4, t600);
        const P t601 = c[3] * t584;
        const P t602 = t70 - t601;
        const P t603 = c[2] * t586;
        const P t604 = t602 + t603;
        const P t605 = c[5] * t585;
        const P t606 = c[4] * t587;
        const P t607 = t605 + t606;
        const P t608 = shuffled<1, 0>(t607);
        const P t609 = flipped<0, 1>(t608);
        const P t610 = t604 + t609;
        io.pair(22, t610);
        const P t611 = t604 - t609;
        io.pair(13, t611);
    }
};

}  // namespace zulg
