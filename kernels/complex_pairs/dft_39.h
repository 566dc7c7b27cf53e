// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 39.
// Complex DFT of 39 points, prime-factor, order 3, 13; one complex number to a register.
// 186 sums, 156 differences, 134 products of registers, which do the 1030 steps of the graph, those with
// `scale` included; 31 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<39> {
    static constexpr int steps = 1030;  // with `scale`
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5279915321544383,  // c[2]: -P[1] of 13
        0.2869425954512852,  // c[3]: Q[1] of 13
        0.5751407294740031,  // c[4]: P[3] of 13
        0.1741386011521359,  // c[5]: Q[3] of 13
        0.5316276774946329,  // c[6]: Q[5] of 13
        0.280148395734785,  // c[7]: P[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.5242266395265821,  // c[9]: -P[2] of 13
        0.29376443202296976,  // c[10]: Q[2] of 13
        0.42763404682657274,  // c[11]: P[4] of 13
        0.42218506973345193,  // c[12]: -Q[4] of 13
        0.37034194807495624,  // c[13]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[14]: sin 2 pi 1/3 times -Q[4] of 13
        0.3004626062886658,  // c[15]: beta of 13
        0.25440746086019866,  // c[16]: sin 2 pi 1/3 times Q[2] of 13
        0.45399358717056765,  // c[17]: sin 2 pi 1/3 times -P[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x13 = io.pair(13);
        const P x26 = io.pair(26);
        // complex block of 3
        const P t0 = x13 + x26;
        const P t1 = x13 - x26;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[0] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[1], c[1]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x16 = io.pair(16);
        const P x29 = io.pair(29);
        // complex block of 3
        const P t9 = x16 + x29;
        const P t10 = x16 - x29;
        const P x3 = io.pair(3);
        const P t11 = t9 + x3;
        const P t12 = c[0] * t9;
        const P t13 = x3 - t12;
        const P t14 = P(-c[1], c[1]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x19 = io.pair(19);
        const P x32 = io.pair(32);
        // complex block of 3
        const P t18 = x19 + x32;
        const P t19 = x19 - x32;
        const P x6 = io.pair(6);
        const P t20 = t18 + x6;
        const P t21 = c[0] * t18;
        const P t22 = x6 - t21;
        const P t23 = P(-c[1], c[1]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P x22 = io.pair(22);
        const P x35 = io.pair(35);
        // complex block of 3
        const P t27 = x22 + x35;
        const P t28 = x22 - x35;
        const P x9 = io.pair(9);
        const P t29 = t27 + x9;
        const P t30 = c[0] * t27;
        const P t31 = x9 - t30;
        const P t32 = P(-c[1], c[1]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x25 = io.pair(25);
        const P x38 = io.pair(38);
        // complex block of 3
        const P t36 = x25 + x38;
        const P t37 = x25 - x38;
        const P x12 = io.pair(12);
        const P t38 = t36 + x12;
        const P t39 = c[0] * t36;
        const P t40 = x12 - t39;
        const P t41 = P(-c[1], c[1]) * t37;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        const P x28 = io.pair(28);
        const P x2 = io.pair(2);
        // complex block of 3
        const P t45 = x28 + x2;
        const P t46 = x28 - x2;
        const P x15 = io.pair(15);
        const P t47 = t45 + x15;
        const P t48 = c[0] * t45;
        const P t49 = x15 - t48;
        const P t50 = P(-c[1], c[1]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const P x31 = io.pair(31);
        const P x5 = io.pair(5);
        // complex block of 3
        const P t54 = x31 + x5;
        const P t55 = x31 - x5;
        const P x18 = io.pair(18);
        const P t56 = t54 + x18;
        const P t57 = c[0] * t54;
        const P t58 = x18 - t57;
        const P t59 = P(-c[1], c[1]) * t55;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        const P x34 = io.pair(34);
        const P x8 = io.pair(8);
        // complex block of 3
        const P t63 = x34 + x8;
        const P t64 = x34 - x8;
        const P x21 = io.pair(21);
        const P t65 = t63 + x21;
        const P t66 = c[0] * t63;
        const P t67 = x21 - t66;
        const P t68 = P(-c[1], c[1]) * t64;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P x37 = io.pair(37);
        const P x11 = io.pair(11);
        // complex block of 3
        const P t72 = x37 + x11;
        const P t73 = x37 - x11;
        const P x24 = io.pair(24);
        const P t74 = t72 + x24;
        const P t75 = c[0] * t72;
        const P t76 = x24 - t75;
        const P t77 = P(-c[1], c[1]) * t73;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = t76 + t78;
        const P t80 = t76 - t78;
        const P x1 = io.pair(1);
        const P x14 = io.pair(14);
        // complex block of 3
        const P t81 = x1 + x14;
        const P t82 = x1 - x14;
        const P x27 = io.pair(27);
        const P t83 = t81 + x27;
        const P t84 = c[0] * t81;
        const P t85 = x27 - t84;
        const P t86 = P(-c[1], c[1]) * t82;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P x4 = io.pair(4);
        const P x17 = io.pair(17);
        // complex block of 3
        const P t90 = x4 + x17;
        const P t91 = x4 - x17;
        const P x30 = io.pair(30);
        const P t92 = t90 + x30;
        const P t93 = c[0] * t90;
        const P t94 = x30 - t93;
        const P t95 = P(-c[1], c[1]) * t91;
        const P t96 = shuffled<1, 0>(t95);
        const P t97 = t94 + t96;
        const P t98 = t94 - t96;
        const P x7 = io.pair(7);
        const P x20 = io.pair(20);
        // complex block of 3
        const P t99 = x7 + x20;
        const P t100 = x7 - x20;
        const P x33 = io.pair(33);
        const P t101 = t99 + x33;
        const P t102 = c[0] * t99;
        const P t103 = x33 - t102;
        const P t104 = P(-c[1], c[1]) * t100;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = t103 + t105;
        const P t107 = t103 - t105;
        const P x10 = io.pair(10);
        const P x23 = io.pair(23);
        // complex block of 3
        const P t108 = x10 + x23;
        const P t109 = x10 - x23;
        const P x36 = io.pair(36);
        const P t110 = t108 + x36;
        const P t111 = c[0] * t108;
        const P t112 = x36 - t111;
        const P t113 = P(-c[1], c[1]) * t109;
        const P t114 = shuffled<1, 0>(t113);
        const P t115 = t112 + t114;
        const P t116 = t112 - t114;
        // real block of 2
        const P t117 = t11 + t110;
        const P t118 = t11 - t110;
        // real block of 2
        const P t119 = t74 + t47;
        const P t120 = t74 - t47;
        // real block of 2
        const P t121 = t117 + t119;
        const P t122 = t117 - t119;
        // real block of 2
        const P t123 = t29 + t92;
        const P t124 = t29 - t92;
        // real block of 2
        const P t125 = t101 + t20;
        const P t126 = t101 - t20;
        // real block of 2
        const P t127 = t123 + t125;
        const P t128 = t123 - t125;
        // real block of 2
        const P t129 = t83 + t38;
        const P t130 = t83 - t38;
        // real block of 2
        const P t131 = t65 + t56;
        const P t132 = t65 - t56;
        // real block of 2
        const P t133 = t129 + t131;
        const P t134 = t129 - t131;
        // real block of 3
        const P t135 = t127 + t133;
        const P t136 = t127 - t133;
        const P t137 = t135 + t121;
        const P t138 = c[0] * t135;
        const P t139 = t121 - t138;
        // complex block of 3
        const P t140 = t124 + t130;
        const P t141 = t126 + t132;
        const P t142 = t124 - t130;
        const P t143 = t126 - t132;
        const P t144 = t140 + t118;
        const P t145 = t141 + t120;
        const P t146 = c[0] * t140;
        const P t147 = t118 - t146;
        const P t148 = c[0] * t141;
        const P t149 = t120 - t148;
        const P t150 = c[1] * t143;
        const P t151 = t147 + t150;
        const P t152 = c[1] * t142;
        const P t153 = t149 - t152;
        const P t154 = t147 - t150;
        const P t155 = t149 + t152;
        // real block of 3
        const P t156 = t128 + t134;
        const P t157 = t128 - t134;
        const P t158 = t156 + t122;
        const P t159 = c[0] * t156;
        const P t160 = t122 - t159;
        // complex block of 13, multiplier 3
        const P t161 = t2 + t137;
        io.pair(0, t161);
        const P t162 = c[8] * t137;
        const P t163 = t2 - t162;
        const P t164 = shuffled<1, 0>(t155);
        const P t165 = P(-c[2], c[2]) * t164;
        const P t166 = shuffled<1, 0>(t154);
        const P t167 = P(c[3], -c[3]) * t166;
        const P t168 = t165 + t167;
        const P t169 = c[3] * t164;
        const P t170 = c[2] * t166;
        const P t171 = t169 + t170;
        const P t172 = c[9] * t160;
        // real block of 3
        const P t173 = c[1] * t157;
        // complex block of 13, multiplier 3
        const P t174 = c[10] * t173;
        const P t175 = t172 + t174;
        const P t176 = shuffled<1, 0>(t145);
        const P t177 = P(-c[4], c[4]) * t176;
        const P t178 = shuffled<1, 0>(t144);
        const P t179 = P(c[5], -c[5]) * t178;
        const P t180 = t177 + t179;
        const P t181 = c[5] * t176;
        const P t182 = c[4] * t178;
        const P t183 = t181 + t182;
        const P t184 = c[11] * t139;
        // real block of 3
        const P t185 = c[1] * t136;
        // complex block of 13, multiplier 3
        const P t186 = c[12] * t185;
        const P t187 = t184 - t186;
        const P t188 = shuffled<1, 0>(t151);
        const P t189 = c[6] * t188;
        const P t190 = shuffled<1, 0>(t153);
        const P t191 = c[7] * t190;
        const P t192 = t189 + t191;
        const P t193 = P(-c[6], c[6]) * t190;
        const P t194 = P(c[7], -c[7]) * t188;
        const P t195 = t193 + t194;
        // spectrum block of 3
        const P t196 = t187 + t163;
        const P t197 = c[0] * t187;
        const P t198 = t163 - t197;
        const P t199 = c[13] * t185;
        const P t200 = c[14] * t139;
        const P t201 = t199 + t200;
        const P t202 = t198 + t201;
        const P t203 = t198 - t201;
        const P t204 = flipped<1, 0>(t195);
        // complex block of 3
        const P t205 = t204 + t171;
        const P t206 = flipped<0, 1>(t192);
        const P t207 = t168 + t206;
        const P t208 = t171 - t204;
        const P t209 = flipped<1, 0>(t168);
        const P t210 = t192 + t209;
        const P t211 = t205 + t183;
        const P t212 = t207 + t180;
        const P t213 = P(-c[0], c[0]) * t205;
        const P t214 = flipped<0, 1>(t183);
        const P t215 = t213 + t214;
        const P t216 = c[0] * t207;
        const P t217 = t180 - t216;
        const P t218 = P(c[1], -c[1]) * t210;
        const P t219 = t215 + t218;
        const P t220 = P(c[1], -c[1]) * t208;
        const P t221 = t217 + t220;
        const P t222 = t215 - t218;
        const P t223 = t217 - t220;
        // complex block of 13, multiplier 3
        const P t224 = c[15] * t158;
        // spectrum block of 3
        const P t225 = t224 - t175;
        const P t226 = c[0] * t175;
        const P t227 = t226 + t224;
        const P t228 = c[16] * t160;
        const P t229 = c[17] * t173;
        const P t230 = t228 - t229;
        const P t231 = t227 + t230;
        const P t232 = t227 - t230;
        // spectrum block of 2
        const P t233 = t196 + t225;
        const P t234 = t196 - t225;
        // spectrum block of 2
        const P t235 = t233 + t212;
        io.pair(3, t235);
        const P t236 = t233 - t212;
        io.pair(36, t236);
        const P t237 = flipped<0, 1>(t211);
        // spectrum block of 2
        const P t238 = t234 + t237;
        io.pair(15, t238);
        const P t239 = t234 - t237;
        io.pair(24, t239);
        // spectrum block of 2
        const P t240 = t202 + t231;
        const P t241 = t202 - t231;
        // spectrum block of 2
        const P t242 = t240 + t221;
        io.pair(27, t242);
        const P t243 = t240 - t221;
        io.pair(12, t243);
        // spectrum block of 2
        const P t244 = t241 + t219;
        io.pair(18, t244);
        const P t245 = t241 - t219;
        io.pair(21, t245);
        // spectrum block of 2
        const P t246 = t203 + t232;
        const P t247 = t203 - t232;
        // spectrum block of 2
        const P t248 = t246 + t223;
        io.pair(9, t248);
        const P t249 = t246 - t223;
        io.pair(30, t249);
        // spectrum block of 2
        const P t250 = t247 + t222;
        io.pair(6, t250);
        const P t251 = t247 - t222;
        io.pair(33, t251);
        // real block of 2
        const P t252 = t16 + t115;
        const P t253 = t16 - t115;
        // real block of 2
        const P t254 = t79 + t52;
        const P t255 = t79 - t52;
        // real block of 2
        const P t256 = t252 + t254;
        const P t257 = t252 - t254;
        // real block of 2
        const P t258 = t34 + t97;
        const P t259 = t34 - t97;
        // real block of 2
        const P t260 = t106 + t25;
        const P t261 = t106 - t25;
        // real block of 2
        const P t262 = t258 + t260;
        const P t263 = t258 - t260;
        // real block of 2
        const P t264 = t88 + t43;
        const P t265 = t88 - t43;
        // real block of 2
        const P t266 = t70 + t61;
        const P t267 = t70 - t61;
        // real block of 2
        const P t268 = t264 + t266;
        const P t269 = t264 - t266;
        // real block of 3
        const P t270 = t262 + t268;
        const P t271 = t262 - t268;
        const P t272 = t270 + t256;
        const P t273 = c[0] * t270;
        const P t274 = t256 - t273;
        // complex block of 3
        const P t275 = t259 + t265;
        const P t276 = t261 + t267;
        const P t277 = t259 - t265;
        const P t278 = t261 - t267;
        const P t279 = t275 + t253;
        const P t280 = t276 + t255;
        const P t281 = c[0] * t275;
        const P t282 = t253 - t281;
        const P t283 = c[0] * t276;
        const P t284 = t255 - t283;
        const P t285 = c[1] * t278;
        const P t286 = t282 + t285;
        const P t287 = c[1] * t277;
        const P t288 = t284 - t287;
        const P t289 = t282 - t285;
        const P t290 = t284 + t287;
        // real block of 3
        const P t291 = t263 + t269;
        const P t292 = t263 - t269;
        const P t293 = t291 + t257;
        const P t294 = c[0] * t291;
        const P t295 = t257 - t294;
        // complex block of 13, multiplier 3
        const P t296 = t7 + t272;
        io.pair(13, t296);
        const P t297 = c[8] * t272;
        const P t298 = t7 - t297;
        const P t299 = shuffled<1, 0>(t290);
        const P t300 = P(-c[2], c[2]) * t299;
        const P t301 = shuffled<1, 0>(t289);
        const P t302 = P(c[3], -c[3]) * t301;
        const P t303 = t300 + t302;
        const P t304 = c[3] * t299;
        const P t305 = c[2] * t301;
        const P t306 = t304 + t305;
        const P t307 = c[9] * t295;
        // real block of 3
        const P t308 = c[1] * t292;
        // complex block of 13, multiplier 3
        const P t309 = c[10] * t308;
        const P t310 = t307 + t309;
        const P t311 = shuffled<1, 0>(t280);
        const P t312 = P(-c[4], c[4]) * t311;
        const P t313 = shuffled<1, 0>(t279);
        const P t314 = P(c[5], -c[5]) * t313;
        const P t315 = t312 + t314;
        const P t316 = c[5] * t311;
        const P t317 = c[4] * t313;
        const P t318 = t316 + t317;
        const P t319 = c[11] * t274;
        // real block of 3
        const P t320 = c[1] * t271;
        // complex block of 13, multiplier 3
        const P t321 = c[12] * t320;
        const P t322 = t319 - t321;
        const P t323 = shuffled<1, 0>(t286);
        const P t324 = c[6] * t323;
        const P t325 = shuffled<1, 0>(t288);
        const P t326 = c[7] * t325;
        const P t327 = t324 + t326;
        const P t328 = P(-c[6], c[6]) * t325;
        const P t329 = P(c[7], -c[7]) * t323;
        const P t330 = t328 + t329;
        // spectrum block of 3
        const P t331 = t322 + t298;
        const P t332 = c[0] * t322;
        const P t333 = t298 - t332;
        const P t334 = c[13] * t320;
        const P t335 = c[14] * t274;
        const P t336 = t334 + t335;
        const P t337 = t333 + t336;
        const P t338 = t333 - t336;
        const P t339 = flipped<1, 0>(t330);
        // complex block of 3
        const P t340 = t339 + t306;
        const P t341 = flipped<0, 1>(t327);
        const P t342 = t303 + t341;
        const P t343 = t306 - t339;
        const P t344 = flipped<1, 0>(t303);
        const P t345 = t327 + t344;
        const P t346 = t340 + t318;
        const P t347 = t342 + t315;
        const P t348 = P(-c[0], c[0]) * t340;
        const P t349 = flipped<0, 1>(t318);
        const P t350 = t348 + t349;
        const P t351 = c[0] * t342;
        const P t352 = t315 - t351;
        const P t353 = P(c[1], -c[1]) * t345;
        const P t354 = t350 + t353;
        const P t355 = P(c[1], -c[1]) * t343;
        const P t356 = t352 + t355;
        const P t357 = t350 - t353;
        const P t358 = t352 - t355;
        // complex block of 13, multiplier 3
        const P t359 = c[15] * t293;
        // spectrum block of 3
        const P t360 = t359 - t310;
        const P t361 = c[0] * t310;
        const P t362 = t361 + t359;
        const P t363 = c[16] * t295;
        const P t364 = c[17] * t308;
        const P t365 = t363 - t364;
        const P t366 = t362 + t365;
        const P t367 = t362 - t365;
        // spectrum block of 2
        const P t368 = t331 + t360;
        const P t369 = t331 - t360;
        // spectrum block of 2
        const P t370 = t368 + t347;
        io.pair(16, t370);
        const P t371 = t368 - t347;
        io.pair(10, t371);
        const P t372 = flipped<0, 1>(t346);
        // spectrum block of 2
        const P t373 = t369 + t372;
        io.pair(28, t373);
        const P t374 = t369 - t372;
        io.pair(37, t374);
        // spectrum block of 2
        const P t375 = t337 + t366;
        const P t376 = t337 - t366;
        // spectrum block of 2
        const P t377 = t375 + t356;
        io.pair(1, t377);
        const P t378 = t375 - t356;
        io.pair(25, t378);
        // spectrum block of 2
        const P t379 = t376 + t354;
        io.pair(31, t379);
        const P t380 = t376 - t354;
        io.pair(34, t380);
        // spectrum block of 2
        const P t381 = t338 + t367;
        const P t382 = t338 - t367;
        // spectrum block of 2
        const P t383 = t381 + t358;
        io.pair(22, t383);
        const P t384 = t381 - t358;
        io.pair(4, t384);
        // spectrum block of 2
        const P t385 = t382 + t357;
        io.pair(19, t385);
        const P t386 = t382 - t357;
        io.pair(7, t386);
        // real block of 2
        const P t387 = t17 + t116;
        const P t388 = t17 - t116;
        // real block of 2
        const P t389 = t80 + t53;
        const P t390 = t80 - t53;
        // real block of 2
        const P t391 = t387 + t389;
        const P t392 = t387 - t389;
        // real block of 2
        const P t393 = t35 + t98;
        const P t394 = t35 - t98;
        // real block of 2
        const P t395 = t107 + t26;
        const P t396 = t107 - t26;
        // real block of 2
        const P t397 = t393 + t395;
        const P t398 = t393 - t395;
        // real block of 2
        const P t399 = t89 + t44;
        const P t400 = t89 - t44;
        // real block of 2
        const P t401 = t71 + t62;
        const P t402 = t71 - t62;
        // real block of 2
        const P t403 = t399 + t401;
        const P t404 = t399 - t401;
        // real block of 3
        const P t405 = t397 + t403;
        const P t406 = t397 - t403;
        const P t407 = t405 + t391;
        const P t408 = c[0] * t405;
        const P t409 = t391 - t408;
        // complex block of 3
        const P t410 = t394 + t400;
        const P t411 = t396 + t402;
        const P t412 = t394 - t400;
        const P t413 = t396 - t402;
        const P t414 = t410 + t388;
        const P t415 = t411 + t390;
        const P t416 = c[0] * t410;
        const P t417 = t388 - t416;
        const P t418 = c[0] * t411;
        const P t419 = t390 - t418;
        const P t420 = c[1] * t413;
        const P t421 = t417 + t420;
        const P t422 = c[1] * t412;
        const P t423 = t419 - t422;
        const P t424 = t417 - t420;
        const P t425 = t419 + t422;
        // real block of 3
        const P t426 = t398 + t404;
        const P t427 = t398 - t404;
        const P t428 = t426 + t392;
        const P t429 = c[0] * t426;
        const P t430 = t392 - t429;
        // complex block of 13, multiplier 3
        const P t431 = t8 + t407;
        io.pair(26, t431);
        const P t432 = c[8] * t407;
        const P t433 = t8 - t432;
        const P t434 = shuffled<1, 0>(t425);
        const P t435 = P(-c[2], c[2]) * t434;
        const P t436 = shuffled<1, 0>(t424);
        const P t437 = P(c[3], -c[3]) * t436;
        const P t438 = t435 + t437;
        const P t439 = c[3] * t434;
        const P t440 = c[2] * t436;
        const P t441 = t439 + t440;
        const P t442 = c[9] * t430;
        // real block of 3
        const P t443 = c[1] * t427;
        // complex block of 13, multiplier 3
        const P t444 = c[10] * t443;
        const P t445 = t442 + t444;
        const P t446 = shuffled<1, 0>(t415);
        const P t447 = P(-c[4], c[4]) * t446;
        const P t448 = shuffled<1, 0>(t414);
        const P t449 = P(c[5], -c[5]) * t448;
        const P t450 = t447 + t449;
        const P t451 = c[5] * t446;
        const P t452 = c[4] * t448;
        const P t453 = t451 + t452;
        const P t454 = c[11] * t409;
        // real block of 3
        const P t455 = c[1] * t406;
        // complex block of 13, multiplier 3
        const P t456 = c[12] * t455;
        const P t457 = t454 - t456;
        const P t458 = shuffled<1, 0>(t421);
        const P t459 = c[6] * t458;
        const P t460 = shuffled<1, 0>(t423);
        const P t461 = c[7] * t460;
        const P t462 = t459 + t461;
        const P t463 = P(-c[6], c[6]) * t460;
        const P t464 = P(c[7], -c[7]) * t458;
        const P t465 = t463 + t464;
        // spectrum block of 3
        const P t466 = t457 + t433;
        const P t467 = c[0] * t457;
        const P t468 = t433 - t467;
        const P t469 = c[13] * t455;
        const P t470 = c[14] * t409;
        const P t471 = t469 + t470;
        const P t472 = t468 + t471;
        const P t473 = t468 - t471;
        const P t474 = flipped<1, 0>(t465);
        // complex block of 3
        const P t475 = t474 + t441;
        const P t476 = flipped<0, 1>(t462);
        const P t477 = t438 + t476;
        const P t478 = t441 - t474;
        const P t479 = flipped<1, 0>(t438);
        const P t480 = t462 + t479;
        const P t481 = t475 + t453;
        const P t482 = t477 + t450;
        const P t483 = P(-c[0], c[0]) * t475;
        const P t484 = flipped<0, 1>(t453);
        const P t485 = t483 + t484;
        const P t486 = c[0] * t477;
        const P t487 = t450 - t486;
        const P t488 = P(c[1], -c[1]) * t480;
        const P t489 = t485 + t488;
        const P t490 = P(c[1], -c[1]) * t478;
        const P t491 = t487 + t490;
        const P t492 = t485 - t488;
        const P t493 = t487 - t490;
        // complex block of 13, multiplier 3
        const P t494 = c[15] * t428;
        // spectrum block of 3
        const P t495 = t494 - t445;
        const P t496 = c[0] * t445;
        const P t497 = t496 + t494;
        const P t498 = c[16] * t430;
        const P t499 = c[17] * t443;
        const P t500 = t498 - t499;
        const P t501 = t497 + t500;
        const P t502 = t497 - t500;
        // spectrum block of 2
        const P t503 = t466 + t495;
        const P t504 = t466 - t495;
        // spectrum block of 2
        const P t505 = t503 + t482;
        io.pair(29, t505);
        const P t506 = t503 - t482;
        io.pair(23, t506);
        const P t507 = flipped<0, 1>(t481);
        // spectrum block of 2
        const P t508 = t504 + t507;
        io.pair(2, t508);
        const P t509 = t504 - t507;
        io.pair(11, t509);
        // spectrum block of 2
        const P t510 = t472 + t501;
        const P t511 = t472 - t501;
        // spectrum block of 2
        const P t512 = t510 + t491;
        io.pair(14, t512);
        const P t513 = t510 - t491;
        io.pair(38, t513);
        // spectrum block of 2
        const P t514 = t511 + t489;
        io.pair(5, t514);
        const P t515 = t511 - t489;
        io.pair(8, t515);
        // spectrum block of 2
        const P t516 = t473 + t502;
        const P t517 = t473 - t502;
        // spectrum block of 2
        const P t518 = t516 + t493;
        io.pair(35, t518);
        const P t519 = t516 - t493;
        io.pair(17, t519);
        // spectrum block of 2
        const P t520 = t517 + t492;
        io.pair(32, t520);
        const P t521 = t517 - t492;
        io.pair(20, t521);
    }
};

}  // namespace zulg
