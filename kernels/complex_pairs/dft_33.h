// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 33.
// Complex DFT of 33 points, prime-factor, order 3, 11; one complex number to a register.
// 165 sums, 135 differences, 172 products of registers, which do the 1010 steps of the graph, those with
// `scale` included; 26 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<33> {
    static constexpr int steps = 1010;  // with `scale`
    static constexpr double inverseRoot = 0.17407765595569785;  // 1/sqrt(33), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.014582488655234533,  // c[6]: Q[1] of 11
        0.6631646485033863,  // c[7]: P[1] of 11
        0.6631375114867465,  // c[8]: -P[2] of 11
        0.01576834991891041,  // c[9]: -Q[2] of 11
        0.16065279913205563,  // c[10]: -P[3] of 11
        0.6435764741901582,  // c[11]: Q[3] of 11
        0.6208226732134613,  // c[12]: P[4] of 11
        0.23362193480940913,  // c[13]: -Q[4] of 11
        0.1,  // c[14]: 1/10
        0.33166247903553997,  // c[15]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x11 = io.pair(11);
        const P x22 = io.pair(22);
        // complex block of 3, multiplier 2
        const P t0 = x11 + x22;
        const P t1 = x11 - x22;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[4] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[5], c[5]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x14 = io.pair(14);
        const P x25 = io.pair(25);
        // complex block of 3, multiplier 2
        const P t9 = x14 + x25;
        const P t10 = x14 - x25;
        const P x3 = io.pair(3);
        const P t11 = t9 + x3;
        const P t12 = c[4] * t9;
        const P t13 = x3 - t12;
        const P t14 = P(-c[5], c[5]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x17 = io.pair(17);
        const P x28 = io.pair(28);
        // complex block of 3, multiplier 2
        const P t18 = x17 + x28;
        const P t19 = x17 - x28;
        const P x6 = io.pair(6);
        const P t20 = t18 + x6;
        const P t21 = c[4] * t18;
        const P t22 = x6 - t21;
        const P t23 = P(-c[5], c[5]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P x20 = io.pair(20);
        const P x31 = io.pair(31);
        // complex block of 3, multiplier 2
        const P t27 = x20 + x31;
        const P t28 = x20 - x31;
        const P x9 = io.pair(9);
        const P t29 = t27 + x9;
        const P t30 = c[4] * t27;
        const P t31 = x9 - t30;
        const P t32 = P(-c[5], c[5]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x23 = io.pair(23);
        const P x1 = io.pair(1);
        // complex block of 3, multiplier 2
        const P t36 = x23 + x1;
        const P t37 = x23 - x1;
        const P x12 = io.pair(12);
        const P t38 = t36 + x12;
        const P t39 = c[4] * t36;
        const P t40 = x12 - t39;
        const P t41 = P(-c[5], c[5]) * t37;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        const P x26 = io.pair(26);
        const P x4 = io.pair(4);
        // complex block of 3, multiplier 2
        const P t45 = x26 + x4;
        const P t46 = x26 - x4;
        const P x15 = io.pair(15);
        const P t47 = t45 + x15;
        const P t48 = c[4] * t45;
        const P t49 = x15 - t48;
        const P t50 = P(-c[5], c[5]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const P x29 = io.pair(29);
        const P x7 = io.pair(7);
        // complex block of 3, multiplier 2
        const P t54 = x29 + x7;
        const P t55 = x29 - x7;
        const P x18 = io.pair(18);
        const P t56 = t54 + x18;
        const P t57 = c[4] * t54;
        const P t58 = x18 - t57;
        const P t59 = P(-c[5], c[5]) * t55;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        const P x32 = io.pair(32);
        const P x10 = io.pair(10);
        // complex block of 3, multiplier 2
        const P t63 = x32 + x10;
        const P t64 = x32 - x10;
        const P x21 = io.pair(21);
        const P t65 = t63 + x21;
        const P t66 = c[4] * t63;
        const P t67 = x21 - t66;
        const P t68 = P(-c[5], c[5]) * t64;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P x2 = io.pair(2);
        const P x13 = io.pair(13);
        // complex block of 3, multiplier 2
        const P t72 = x2 + x13;
        const P t73 = x2 - x13;
        const P x24 = io.pair(24);
        const P t74 = t72 + x24;
        const P t75 = c[4] * t72;
        const P t76 = x24 - t75;
        const P t77 = P(-c[5], c[5]) * t73;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = t76 + t78;
        const P t80 = t76 - t78;
        const P x5 = io.pair(5);
        const P x16 = io.pair(16);
        // complex block of 3, multiplier 2
        const P t81 = x5 + x16;
        const P t82 = x5 - x16;
        const P x27 = io.pair(27);
        const P t83 = t81 + x27;
        const P t84 = c[4] * t81;
        const P t85 = x27 - t84;
        const P t86 = P(-c[5], c[5]) * t82;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P x8 = io.pair(8);
        const P x19 = io.pair(19);
        // complex block of 3, multiplier 2
        const P t90 = x8 + x19;
        const P t91 = x8 - x19;
        const P x30 = io.pair(30);
        const P t92 = t90 + x30;
        const P t93 = c[4] * t90;
        const P t94 = x30 - t93;
        const P t95 = P(-c[5], c[5]) * t91;
        const P t96 = shuffled<1, 0>(t95);
        const P t97 = t94 + t96;
        const P t98 = t94 - t96;
        // real block of 5, multiplier 2
        const P t99 = t38 + t29;
        const P t100 = t38 - t29;
        const P t101 = t83 + t47;
        const P t102 = t83 - t47;
        const P t103 = t99 + t101;
        const P t104 = t103 + t11;
        const P t105 = c[0] * t99;
        const P t106 = t11 - t105;
        const P t107 = c[1] * t101;
        const P t108 = t106 + t107;
        const P t109 = c[2] * t100;
        const P t110 = c[3] * t102;
        const P t111 = t109 + t110;
        const P t112 = c[1] * t99;
        const P t113 = c[0] * t101;
        const P t114 = t112 - t113;
        const P t115 = t114 + t11;
        const P t116 = c[3] * t100;
        const P t117 = c[2] * t102;
        const P t118 = t116 - t117;
        // real block of 5, multiplier 2
        const P t119 = t65 + t74;
        const P t120 = t65 - t74;
        const P t121 = t20 + t56;
        const P t122 = t20 - t56;
        const P t123 = t119 + t121;
        const P t124 = t123 + t92;
        const P t125 = c[0] * t119;
        const P t126 = t92 - t125;
        const P t127 = c[1] * t121;
        const P t128 = t126 + t127;
        const P t129 = c[2] * t120;
        const P t130 = c[3] * t122;
        const P t131 = t129 + t130;
        const P t132 = c[1] * t119;
        const P t133 = c[0] * t121;
        const P t134 = t132 - t133;
        const P t135 = t134 + t92;
        const P t136 = c[3] * t120;
        const P t137 = c[2] * t122;
        const P t138 = t136 - t137;
        // real block of 2
        const P t139 = t104 + t124;
        const P t140 = t104 - t124;
        // complex block of 2
        const P t141 = t108 + t128;
        const P t142 = t111 + t131;
        const P t143 = t108 - t128;
        const P t144 = t131 - t111;
        // complex block of 2
        const P t145 = t115 + t135;
        const P t146 = t118 + t138;
        const P t147 = t115 - t135;
        const P t148 = t118 - t138;
        // complex block of 11, multiplier 3
        const P t149 = t2 + t139;
        io.pair(0, t149);
        const P t150 = c[14] * t139;
        const P t151 = t2 - t150;
        const P t152 = shuffled<1, 0>(t147);
        const P t153 = c[6] * t152;
        const P t154 = shuffled<1, 0>(t148);
        const P t155 = c[7] * t154;
        const P t156 = t153 + t155;
        const P t157 = P(-c[6], c[6]) * t154;
        const P t158 = P(c[7], -c[7]) * t152;
        const P t159 = t157 + t158;
        const P t160 = c[8] * t141;
        const P t161 = c[9] * t142;
        const P t162 = t160 + t161;
        const P t163 = c[8] * t142;
        const P t164 = c[9] * t141;
        const P t165 = t163 - t164;
        const P t166 = shuffled<1, 0>(t144);
        const P t167 = P(-c[10], c[10]) * t166;
        const P t168 = shuffled<1, 0>(t143);
        const P t169 = P(c[11], -c[11]) * t168;
        const P t170 = t167 + t169;
        const P t171 = c[11] * t166;
        const P t172 = c[10] * t168;
        const P t173 = t171 + t172;
        const P t174 = c[12] * t145;
        const P t175 = c[13] * t146;
        const P t176 = t174 + t175;
        const P t177 = c[12] * t146;
        const P t178 = c[13] * t145;
        const P t179 = t177 - t178;
        const P t180 = shuffled<1, 0>(t140);
        const P t181 = P(c[15], -c[15]) * t180;
        // spectrum block of 2
        const P t182 = t151 + t181;
        const P t183 = t151 - t181;
        const P t184 = flipped<0, 1>(t173);
        // complex block of 2
        const P t185 = t165 + t184;
        const P t186 = t170 - t162;
        const P t187 = t165 - t184;
        const P t188 = t162 + t170;
        // complex block of 2
        const P t189 = t179 - t159;
        const P t190 = flipped<0, 1>(t156);
        const P t191 = t176 + t190;
        const P t192 = t179 + t159;
        const P t193 = t176 - t190;
        // spectrum block of 5, multiplier 2
        const P t194 = t186 + t191;
        const P t195 = t194 + t182;
        io.pair(3, t195);
        const P t196 = c[1] * t186;
        const P t197 = c[0] * t191;
        const P t198 = t196 - t197;
        const P t199 = t198 + t182;
        const P t200 = c[3] * t185;
        const P t201 = c[2] * t189;
        const P t202 = t200 + t201;
        const P t203 = t199 - t202;
        io.pair(15, t203);
        const P t204 = t199 + t202;
        io.pair(27, t204);
        const P t205 = c[0] * t186;
        const P t206 = t182 - t205;
        const P t207 = c[1] * t191;
        const P t208 = t206 + t207;
        const P t209 = c[2] * t185;
        const P t210 = c[3] * t189;
        const P t211 = t209 - t210;
        const P t212 = t208 - t211;
        io.pair(9, t212);
        const P t213 = t208 + t211;
        io.pair(12, t213);
        // spectrum block of 5, multiplier 2
        const P t214 = t193 - t188;
        const P t215 = t214 + t183;
        io.pair(30, t215);
        const P t216 = c[1] * t188;
        const P t217 = t183 - t216;
        const P t218 = c[0] * t193;
        const P t219 = t217 - t218;
        const P t220 = c[3] * t187;
        const P t221 = c[2] * t192;
        const P t222 = t220 + t221;
        const P t223 = t219 - t222;
        io.pair(18, t223);
        const P t224 = t219 + t222;
        io.pair(6, t224);
        const P t225 = c[0] * t188;
        const P t226 = c[1] * t193;
        const P t227 = t225 + t226;
        const P t228 = t227 + t183;
        const P t229 = c[2] * t187;
        const P t230 = c[3] * t192;
        const P t231 = t229 - t230;
        const P t232 = t228 - t231;
        io.pair(24, t232);
        const P t233 = t228 + t231;
        io.pair(21, t233);
        // real block of 5, multiplier 2
        const P t234 = t44 + t35;
        const P t235 = t44 - t35;
        const P t236 = t89 + t53;
        const P t237 = t89 - t53;
        const P t238 = t234 + t236;
        const P t239 = t238 + t17;
        const P t240 = c[0] * t234;
        const P t241 = t17 - t240;
        const P t242 = c[1] * t236;
        const P t243 = t241 + t242;
        const P t244 = c[2] * t235;
        const P t245 = c[3] * t237;
        const P t246 = t244 + t245;
        const P t247 = c[1] * t234;
        const P t248 = c[0] * t236;
        const P t249 = t247 - t248;
        const P t250 = t249 + t17;
        const P t251 = c[3] * t235;
        const P t252 = c[2] * t237;
        const P t253 = t251 - t252;
        // real block of 5, multiplier 2
        const P t254 = t71 + t80;
        const P t255 = t71 - t80;
        const P t256 = t26 + t62;
        const P t257 = t26 - t62;
        const P t258 = t254 + t256;
        const P t259 = t258 + t98;
        const P t260 = c[0] * t254;
        const P t261 = t98 - t260;
        const P t262 = c[1] * t256;
        const P t263 = t261 + t262;
        const P t264 = c[2] * t255;
        const P t265 = c[3] * t257;
        const P t266 = t264 + t265;
        const P t267 = c[1] * t254;
        const P t268 = c[0] * t256;
        const P t269 = t267 - t268;
        const P t270 = t269 + t98;
        const P t271 = c[3] * t255;
        const P t272 = c[2] * t257;
        const P t273 = t271 - t272;
        // real block of 2
        const P t274 = t239 + t259;
        const P t275 = t239 - t259;
        // complex block of 2
        const P t276 = t243 + t263;
        const P t277 = t246 + t266;
        const P t278 = t243 - t263;
        const P t279 = t266 - t246;
        // complex block of 2
        const P t280 = t250 + t270;
        const P t281 = t253 + t273;
        const P t282 = t250 - t270;
        const P t283 = t253 - t273;
        // complex block of 11, multiplier 3
        const P t284 = t8 + t274;
        io.pair(11, t284);
        const P t285 = c[14] * t274;
        const P t286 = t8 - t285;
        const P t287 = shuffled<1, 0>(t282);
        const P t288 = c[6] * t287;
        const P t289 = shuffled<1, 0>(t283);
        const P t290 = c[7] * t289;
        const P t291 = t288 + t290;
        const P t292 = P(-c[6], c[6]) * t289;
        const P t293 = P(c[7], -c[7]) * t287;
        const P t294 = t292 + t293;
        const P t295 = c[8] * t276;
        const P t296 = c[9] * t277;
        const P t297 = t295 + t296;
        const P t298 = c[8] * t277;
        const P t299 = c[9] * t276;
        const P t300 = t298 - t299;
        const P t301 = shuffled<1, 0>(t279);
        const P t302 = P(-c[10], c[10]) * t301;
        const P t303 = shuffled<1, 0>(t278);
        const P t304 = P(c[11], -c[11]) * t303;
        const P t305 = t302 + t304;
        const P t306 = c[11] * t301;
        const P t307 = c[10] * t303;
        const P t308 = t306 + t307;
        const P t309 = c[12] * t280;
        const P t310 = c[13] * t281;
        const P t311 = t309 + t310;
        const P t312 = c[12] * t281;
        const P t313 = c[13] * t280;
        const P t314 = t312 - t313;
        const P t315 = shuffled<1, 0>(t275);
        const P t316 = P(c[15], -c[15]) * t315;
        // spectrum block of 2
        const P t317 = t286 + t316;
        const P t318 = t286 - t316;
        const P t319 = flipped<0, 1>(t308);
        // complex block of 2
        const P t320 = t300 + t319;
        const P t321 = t305 - t297;
        const P t322 = t300 - t319;
        const P t323 = t297 + t305;
        // complex block of 2
        const P t324 = t314 - t294;
        const P t325 = flipped<0, 1>(t291);
        const P t326 = t311 + t325;
        const P t327 = t314 + t294;
        const P t328 = t311 - t325;
        // spectrum block of 5, multiplier 2
        const P t329 = t321 + t326;
        const P t330 = t329 + t317;
        io.pair(14, t330);
        const P t331 = c[1] * t321;
        const P t332 = c[0] * t326;
        const P t333 = t331 - t332;
        const P t334 = t333 + t317;
        const P t335 = c[3] * t320;
        const P t336 = c[2] * t324;
        const P t337 = t335 + t336;
        const P t338 = t334 - t337;
        io.pair(26, t338);
        const P t339 = t334 + t337;
        io.pair(5, t339);
        const P t340 = c[0] * t321;
        const P t341 = t317 - t340;
        const P t342 = c[1] * t326;
        const P t343 = t341 + t342;
        const P t344 = c[2] * t320;
        const P t345 = c[3] * t324;
        const P t346 = t344 - t345;
        const P t347 = t343 - t346;
        io.pair(20, t347);
        const P t348 = t343 + t346;
        io.pair(23, t348);
        // spectrum block of 5, multiplier 2
        const P t349 = t328 - t323;
        const P t350 = t349 + t318;
        io.pair(8, t350);
        const P t351 = c[1] * t323;
        const P t352 = t318 - t351;
        const P t353 = c[0] * t328;
        const P t354 = t352 - t353;
        const P t355 = c[3] * t322;
        const P t356 = c[2] * t327;
        const P t357 = t355 + t356;
        const P t358 = t354 - t357;
        io.pair(29, t358);
        const P t359 = t354 + t357;
        io.pair(17, t359);
        const P t360 = c[0] * t323;
        const P t361 = c[1] * t328;
        const P t362 = t360 + t361;
        const P t363 = t362 + t318;
        const P t364 = c[2] * t322;
        const P t365 = c[3] * t327;
        const P t366 = t364 - t365;
        const P t367 = t363 - t366;
        io.pair(2, t367);
        const P t368 = t363 + t366;
        io.pair(32, t368);
        // real block of 5, multiplier 2
        const P t369 = t43 + t34;
        const P t370 = t43 - t34;
        const P t371 = t88 + t52;
        const P t372 = t88 - t52;
        const P t373 = t369 + t371;
        const P t374 = t373 + t16;
        const P t375 = c[0] * t369;
        const P t376 = t16 - t375;
        const P t377 = c[1] * t371;
        const P t378 = t376 + t377;
        const P t379 = c[2] * t370;
        const P t380 = c[3] * t372;
        const P t381 = t379 + t380;
        const P t382 = c[1] * t369;
        const P t383 = c[0] * t371;
        const P t384 = t382 - t383;
        const P t385 = t384 + t16;
        const P t386 = c[3] * t370;
        const P t387 = c[2] * t372;
        const P t388 = t386 - t387;
        // real block of 5, multiplier 2
        const P t389 = t70 + t79;
        const P t390 = t70 - t79;
        const P t391 = t25 + t61;
        const P t392 = t25 - t61;
        const P t393 = t389 + t391;
        const P t394 = t393 + t97;
        const P t395 = c[0] * t389;
        const P t396 = t97 - t395;
        const P t397 = c[1] * t391;
        const P t398 = t396 + t397;
        const P t399 = c[2] * t390;
        const P t400 = c[3] * t392;
        const P t401 = t399 + t400;
        const P t402 = c[1] * t389;
        const P t403 = c[0] * t391;
        const P t404 = t402 - t403;
        const P t405 = t404 + t97;
        const P t406 = c[3] * t390;
        const P t407 = c[2] * t392;
        const P t408 = t406 - t407;
        // real block of 2
        const P t409 = t374 + t394;
        const P t410 = t374 - t394;
        // complex block of 2
        const P t411 = t378 + t398;
        const P t412 = t381 + t401;
        const P t413 = t378 - t398;
        const P t414 = t401 - t381;
        // complex block of 2
        const P t415 = t385 + t405;
        const P t416 = t388 + t408;
        const P t417 = t385 - t405;
        const P t418 = t388 - t408;
        // complex block of 11, multiplier 3
        const P t419 = t7 + t409;
        io.pair(22, t419);
        const P t420 = c[14] * t409;
        const P t421 = t7 - t420;
        const P t422 = shuffled<1, 0>(t417);
        const P t423 = c[6] * t422;
        const P t424 = shuffled<1, 0>(t418);
        const P t425 = c[7] * t424;
        const P t426 = t423 + t425;
        const P t427 = P(-c[6], c[6]) * t424;
        const P t428 = P(c[7], -c[7]) * t422;
        const P t429 = t427 + t428;
        const P t430 = c[8] * t411;
        const P t431 = c[9] * t412;
        const P t432 = t430 + t431;
        const P t433 = c[8] * t412;
        const P t434 = c[9] * t411;
        const P t435 = t433 - t434;
        const P t436 = shuffled<1, 0>(t414);
        const P t437 = P(-c[10], c[10]) * t436;
        const P t438 = shuffled<1, 0>(t413);
        const P t439 = P(c[11], -c[11]) * t438;
        const P t440 = t437 + t439;
        const P t441 = c[11] * t436;
        const P t442 = c[10] * t438;
        const P t443 = t441 + t442;
        const P t444 = c[12] * t415;
        const P t445 = c[13] * t416;
        const P t446 = t444 + t445;
        const P t447 = c[12] * t416;
        const P t448 = c[13] * t415;
        const P t449 = t447 - t448;
        const P t450 = shuffled<1, 0>(t410);
        const P t451 = P(c[15], -c[15]) * t450;
        // spectrum block of 2
        const P t452 = t421 + t451;
        const P t453 = t421 - t451;
        const P t454 = flipped<0, 1>(t443);
        // complex block of 2
        const P t455 = t435 + t454;
        const P t456 = t440 - t432;
        const P t457 = t435 - t454;
        const P t458 = t432 + t440;
        // complex block of 2
        const P t459 = t449 - t429;
        const P t460 = flipped<0, 1>(t426);
        const P t461 = t446 + t460;
        const P t462 = t449 + t429;
        const P t463 = t446 - t460;
        // spectrum block of 5, multiplier 2
        const P t464 = t456 + t461;
        const P t465 = t464 + t452;
        io.pair(25, t465);
        const P t466 = c[1] * t456;
        const P t467 = c[0] * t461;
        const P t468 = t466 - t467;
        const P t469 = t468 + t452;
        const P t470 = c[3] * t455;
        const P t471 = c[2] * t459;
        const P t472 = t470 + t471;
        const P t473 = t469 - t472;
        io.pair(4, t473);
        const P t474 = t469 + t472;
        io.pair(16, t474);
        const P t475 = c[0] * t456;
        const P t476 = t452 - t475;
        const P t477 = c[1] * t461;
        const P t478 = t476 + t477;
        const P t479 = c[2] * t455;
        const P t480 = c[3] * t459;
        const P t481 = t479 - t480;
        const P t482 = t478 - t481;
        io.pair(31, t482);
        const P t483 = t478 + t481;
        io.pair(1, t483);
        // spectrum block of 5, multiplier 2
        const P t484 = t463 - t458;
        const P t485 = t484 + t453;
        io.pair(19, t485);
        const P t486 = c[1] * t458;
        const P t487 = t453 - t486;
        const P t488 = c[0] * t463;
        const P t489 = t487 - t488;
        const P t490 = c[3] * t457;
        const P t491 = c[2] * t462;
        const P t492 = t490 + t491;
        const P t493 = t489 - t492;
        io.pair(7, t493);
        const P t494 = t489 + t492;
        io.pair(28, t494);
        const P t495 = c[0] * t458;
        const P t496 = c[1] * t463;
        const P t497 = t495 + t496;
        const P t498 = t497 + t453;
        const P t499 = c[2] * t457;
        const P t500 = c[3] * t462;
        const P t501 = t499 - t500;
        const P t502 = t498 - t501;
        io.pair(13, t502);
        const P t503 = t498 + t501;
        io.pair(10, t503);
    }
};

}  // namespace zulg
