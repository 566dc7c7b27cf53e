// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 63.
// Complex DFT of 63 points, prime-factor, order 7, 9; two lines of a stage to a register.
// 159 sums, 134 differences, 160 products of registers, which do the 1830 steps of the graph, those with
// `scale` included; 92 shuffles, 27 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<63> {
    static constexpr int steps = 1830;  // with `scale`
    static constexpr double inverseRoot = 0.1259881576697424;  // 1/sqrt(63), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6234898018587335,  // c[2]: cos 2 pi 1/7
        0.2225209339563144,  // c[3]: -cos 2 pi 5/7
        0.9009688679024191,  // c[4]: -cos 2 pi 4/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.9749279121818236,  // c[6]: -sin 2 pi 5/7
        0.4338837391175581,  // c[7]: -sin 2 pi 4/7
        0.3420201433256687,  // c[8]: -sin 2 pi 5/9
        0.9396926207859084,  // c[9]: -cos 2 pi 5/9
        0.17364817766693036,  // c[10]: cos 2 pi 7/9
        0.984807753012208,  // c[11]: -sin 2 pi 7/9
        0.766044443118978,  // c[12]: cos 2 pi 1/9
        0.6427876096865394,  // c[13]: sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x9_16 = io.pairs(9, 16);
        const Q x54_61 = io.pairs(54, 61);
        // complex block of 7, multiplier 2
        const Q t0 = x9_16 + x54_61;
        const Q t1 = x9_16 - x54_61;
        const Q x45_52 = io.pairs(45, 52);
        const Q x18_25 = io.pairs(18, 25);
        const Q t2 = x45_52 + x18_25;
        const Q t3 = x45_52 - x18_25;
        const Q x36_43 = io.pairs(36, 43);
        const Q x27_34 = io.pairs(27, 34);
        const Q t4 = x36_43 + x27_34;
        const Q t5 = x36_43 - x27_34;
        const Q t6 = t0 + t2;
        const Q t7 = t6 + t4;
        const Q x0_7 = io.pairs(0, 7);
        const Q t8 = t7 + x0_7;
        const Q t9 = c[2] * t0;
        const Q t10 = c[3] * t2;
        const Q t11 = t9 - t10;
        const Q t12 = c[4] * t4;
        const Q t13 = t11 - t12;
        const Q t14 = t13 + x0_7;
        const Q t15 = c[5] * t1;
        const Q t16 = c[6] * t3;
        const Q t17 = t15 - t16;
        const Q t18 = c[7] * t5;
        const Q t19 = t17 - t18;
        const Q t20 = shuffled<1, 0, 3, 2>(t19);
        const Q t21 = flipped<0, 1, 0, 1>(t20);
        const Q t22 = t14 + t21;
        const Q t23 = t14 - t21;
        const Q t24 = c[3] * t0;
        const Q t25 = x0_7 - t24;
        const Q t26 = c[4] * t2;
        const Q t27 = t25 - t26;
        const Q t28 = c[2] * t4;
        const Q t29 = t27 + t28;
        const Q t30 = c[6] * t1;
        const Q t31 = c[7] * t3;
        const Q t32 = t30 + t31;
        const Q t33 = c[5] * t5;
        const Q t34 = t32 + t33;
        const Q t35 = shuffled<1, 0, 3, 2>(t34);
        const Q t36 = flipped<0, 1, 0, 1>(t35);
        const Q t37 = t29 + t36;
        const Q t38 = t29 - t36;
        const Q t39 = c[4] * t0;
        const Q t40 = x0_7 - t39;
        const Q t41 = c[2] * t2;
        const Q t42 = t40 + t41;
        const Q t43 = c[3] * t4;
        const Q t44 = t42 - t43;
        const Q t45 = c[7] * t1;
        const Q t46 = c[5] * t3;
        const Q t47 = t45 + t46;
        const Q t48 = c[6] * t5;
        const Q t49 = t47 - t48;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = flipped<0, 1, 0, 1>(t50);
        const Q t52 = t44 + t51;
        const Q t53 = t44 - t51;
        const Q x23_30 = io.pairs(23, 30);
        const Q x5_12 = io.pairs(5, 12);
        // complex block of 7, multiplier 2
        const Q t54 = x23_30 + x5_12;
        const Q t55 = x23_30 - x5_12;
        const Q x59_3 = io.pairs(59, 3);
        const Q x32_39 = io.pairs(32, 39);
        const Q t56 = x59_3 + x32_39;
        const Q t57 = x59_3 - x32_39;
        const Q x50_57 = io.pairs(50, 57);
        const Q x41_48 = io.pairs(41, 48);
        const Q t58 = x50_57 + x41_48;
        const Q t59 = x50_57 - x41_48;
        const Q t60 = t54 + t56;
        const Q t61 = t60 + t58;
        const Q x14_21 = io.pairs(14, 21);
        const Q t62 = t61 + x14_21;
        const Q t63 = c[2] * t54;
        const Q t64 = c[3] * t56;
        const Q t65 = t63 - t64;
        const Q t66 = c[4] * t58;
        const Q t67 = t65 - t66;
        const Q t68 = t67 + x14_21;
        const Q t69 = c[5] * t55;
        const Q t70 = c[6] * t57;
        const Q t71 = t69 - t70;
        const Q t72 = c[7] * t59;
        const Q t73 = t71 - t72;
        const Q t74 = shuffled<1, 0, 3, 2>(t73);
        const Q t75 = flipped<0, 1, 0, 1>(t74);
        const Q t76 = t68 + t75;
        const Q t77 = t68 - t75;
        const Q t78 = c[3] * t54;
        const Q t79 = x14_21 - t78;
        const Q t80 = c[4] * t56;
        const Q t81 = t79 - t80;
        const Q t82 = c[2] * t58;
        const Q t83 = t81 + t82;
        const Q t84 = c[6] * t55;
        const Q t85 = c[7] * t57;
        const Q t86 = t84 + t85;
        const Q t87 = c[5] * t59;
        const Q t88 = t86 + t87;
        const Q t89 = shuffled<1, 0, 3, 2>(t88);
        const Q t90 = flipped<0, 1, 0, 1>(t89);
        const Q t91 = t83 + t90;
        const Q t92 = t83 - t90;
        const Q t93 = c[4] * t54;
        const Q t94 = x14_21 - t93;
        const Q t95 = c[2] * t56;
        const Q t96 = t94 + t95;
        const Q t97 = c[3] * t58;
        const Q t98 = t96 - t97;
        const Q t99 = c[7] * t55;
        const Q t100 = c[5] * t57;
        const Q t101 = t99 + t100;
        const Q t102 = c[6] * t59;
        const Q t103 = t101 - t102;
        const Q t104 = shuffled<1, 0, 3, 2>(t103);
        const Q t105 = flipped<0, 1, 0, 1>(t104);
        const Q t106 = t98 + t105;
        const Q t107 = t98 - t105;
        const Q x37_44 = io.pairs(37, 44);
        const Q x19_26 = io.pairs(19, 26);
        // complex block of 7, multiplier 2
        const Q t108 = x37_44 + x19_26;
        const Q t109 = x37_44 - x19_26;
        const Q x10_17 = io.pairs(10, 17);
        const Q x46_53 = io.pairs(46, 53);
        const Q t110 = x10_17 + x46_53;
        const Q t111 = x10_17 - x46_53;
        const Q x1_8 = io.pairs(1, 8);
        const Q x55_62 = io.pairs(55, 62);
        const Q t112 = x1_8 + x55_62;
        const Q t113 = x1_8 - x55_62;
        const Q t114 = t108 + t110;
        const Q t115 = t114 + t112;
        const Q x28_35 = io.pairs(28, 35);
        const Q t116 = t115 + x28_35;
        const Q t117 = c[2] * t108;
        const Q t118 = c[3] * t110;
        const Q t119 = t117 - t118;
        const Q t120 = c[4] * t112;
        const Q t121 = t119 - t120;
        const Q t122 = t121 + x28_35;
        const Q t123 = c[5] * t109;
        const Q t124 = c[6] * t111;
        const Q t125 = t123 - t124;
        const Q t126 = c[7] * t113;
        const Q t127 = t125 - t126;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = flipped<0, 1, 0, 1>(t128);
        const Q t130 = t122 + t129;
        const Q t131 = t122 - t129;
        const Q t132 = c[3] * t108;
        const Q t133 = x28_35 - t132;
        const Q t134 = c[4] * t110;
        const Q t135 = t133 - t134;
        const Q t136 = c[2] * t112;
        const Q t137 = t135 + t136;
        const Q t138 = c[6] * t109;
        const Q t139 = c[7] * t111;
        const Q t140 = t138 + t139;
        const Q t141 = c[5] * t113;
        const Q t142 = t140 + t141;
        const Q t143 = shuffled<1, 0, 3, 2>(t142);
        const Q t144 = flipped<0, 1, 0, 1>(t143);
        const Q t145 = t137 + t144;
        const Q t146 = t137 - t144;
        const Q t147 = c[4] * t108;
        const Q t148 = x28_35 - t147;
        const Q t149 = c[2] * t110;
        const Q t150 = t148 + t149;
        const Q t151 = c[3] * t112;
        const Q t152 = t150 - t151;
        const Q t153 = c[7] * t109;
        const Q t154 = c[5] * t111;
        const Q t155 = t153 + t154;
        const Q t156 = c[6] * t113;
        const Q t157 = t155 - t156;
        const Q t158 = shuffled<1, 0, 3, 2>(t157);
        const Q t159 = flipped<0, 1, 0, 1>(t158);
        const Q t160 = t152 + t159;
        const Q t161 = t152 - t159;
        const Q x51_58 = io.pairs(51, 58);
        const Q x33_40 = io.pairs(33, 40);
        // complex block of 7, multiplier 2
        const Q t162 = x51_58 + x33_40;
        const Q t163 = x51_58 - x33_40;
        const Q x24_31 = io.pairs(24, 31);
        const Q x60_4 = io.pairs(60, 4);
        const Q t164 = x24_31 + x60_4;
        const Q t165 = x24_31 - x60_4;
        const Q x15_22 = io.pairs(15, 22);
        const Q x6_13 = io.pairs(6, 13);
        const Q t166 = x15_22 + x6_13;
        const Q t167 = x15_22 - x6_13;
        const Q t168 = t162 + t164;
        const Q t169 = t168 + t166;
        const Q x42_49 = io.pairs(42, 49);
        const Q t170 = t169 + x42_49;
        const Q t171 = c[2] * t162;
        const Q t172 = c[3] * t164;
        const Q t173 = t171 - t172;
        const Q t174 = c[4] * t166;
        const Q t175 = t173 - t174;
        const Q t176 = t175 + x42_49;
        const Q t177 = c[5] * t163;
        const Q t178 = c[6] * t165;
        const Q t179 = t177 - t178;
        const Q t180 = c[7] * t167;
        const Q t181 = t179 - t180;
        const Q t182 = shuffled<1, 0, 3, 2>(t181);
        const Q t183 = flipped<0, 1, 0, 1>(t182);
        const Q t184 = t176 + t183;
        const Q t185 = t176 - t183;
        const Q t186 = c[3] * t162;
        const Q t187 = x42_49 - t186;
        const Q t188 = c[4] * t164;
        const Q t189 = t187 - t188;
        const Q t190 = c[2] * t166;
        const Q t191 = t189 + t190;
        const Q t192 = c[6] * t163;
        const Q t193 = c[7] * t165;
        const Q t194 = t192 + t193;
        const Q t195 = c[5] * t167;
        const Q t196 = t194 + t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t196);
        const Q t198 = flipped<0, 1, 0, 1>(t197);
        const Q t199 = t191 + t198;
        const Q t200 = t191 - t198;
        const Q t201 = c[4] * t162;
        const Q t202 = x42_49 - t201;
        const Q t203 = c[2] * t164;
        const Q t204 = t202 + t203;
        const Q t205 = c[3] * t166;
        const Q t206 = t204 - t205;
        const Q t207 = c[7] * t163;
        const Q t208 = c[5] * t165;
        const Q t209 = t207 + t208;
        const Q t210 = c[6] * t167;
        const Q t211 = t209 - t210;
        const Q t212 = shuffled<1, 0, 3, 2>(t211);
        const Q t213 = flipped<0, 1, 0, 1>(t212);
        const Q t214 = t206 + t213;
        const Q t215 = t206 - t213;
        const P x2 = io.pair(2);
        const P x47 = io.pair(47);
        // complex block of 7, multiplier 2
        const P t216 = x2 + x47;
        const P t217 = x2 - x47;
        const P x38 = io.pair(38);
        const P x11 = io.pair(11);
        const P t218 = x38 + x11;
        const P t219 = x38 - x11;
        const P x29 = io.pair(29);
        const P x20 = io.pair(20);
        const P t220 = x29 + x20;
        const P t221 = x29 - x20;
        const P t222 = t216 + t218;
        const P t223 = t222 + t220;
        const P x56 = io.pair(56);
        const P t224 = t223 + x56;
        const P t225 = c[2] * t216;
        const P t226 = c[3] * t218;
        const P t227 = t225 - t226;
        const P t228 = c[4] * t220;
        const P t229 = t227 - t228;
        const P t230 = t229 + x56;
        const P t231 = c[5] * t217;
        const P t232 = c[6] * t219;
        const P t233 = t231 - t232;
        const P t234 = c[7] * t221;
        const P t235 = t233 - t234;
        const P t236 = shuffled<1, 0>(t235);
        const P t237 = flipped<0, 1>(t236);
        const P t238 = t230 + t237;
        const P t239 = t230 - t237;
        const P t240 = c[3] * t216;
        const P t241 = x56 - t240;
        const P t242 = c[4] * t218;
        const P t243 = t241 - t242;
        const P t244 = c[2] * t220;
        const P t245 = t243 + t244;
        const P t246 = c[6] * t217;
        const P t247 = c[7] * t219;
        const P t248 = t246 + t247;
        const P t249 = c[5] * t221;
        const P t250 = t248 + t249;
        const P t251 = shuffled<1, 0>(t250);
        const P t252 = flipped<0, 1>(t251);
        const P t253 = t245 + t252;
        const P t254 = t245 - t252;
        const P t255 = c[4] * t216;
        const P t256 = x56 - t255;
        const P t257 = c[2] * t218;
        const P t258 = t256 + t257;
        const P t259 = c[3] * t220;
        const P t260 = t258 - t259;
        const P t261 = c[7] * t217;
        const P t262 = c[5] * t219;
        const P t263 = t261 + t262;
        const P t264 = c[6] * t221;
        const P t265 = t263 - t264;
        const P t266 = shuffled<1, 0>(t265);
        const P t267 = flipped<0, 1>(t266);
        const P t268 = t260 + t267;
        const P t269 = t260 - t267;
        const Q t270 = shuffled<2, 3, 6, 7>(t62, t91);
        const Q t271 = shuffled<0, 1, 4, 5>(t170, t199);
        // complex block of 3
        const Q t272 = t270 + t271;
        const Q t273 = t270 - t271;
        const Q t274 = shuffled<0, 1, 4, 5>(t8, t37);
        const Q t275 = t272 + t274;
        const Q t276 = c[0] * t272;
        const Q t277 = t274 - t276;
        const Q t278 = Q(-c[1], c[1], -c[1], c[1]) * t273;
        const Q t279 = shuffled<1, 0, 3, 2>(t278);
        const Q t280 = t277 + t279;
        const Q t281 = t277 - t279;
        const Q t282 = shuffled<0, 1, 4, 5>(t116, t145);
        const Q t283 = shuffled<2, 3, 6, 7>(t170, t199);
        // complex block of 3
        const Q t284 = t282 + t283;
        const Q t285 = t282 - t283;
        const Q t286 = shuffled<2, 3, 6, 7>(t8, t37);
        const Q t287 = t284 + t286;
        const Q t288 = c[0] * t284;
        const Q t289 = t286 - t288;
        const Q t290 = Q(-c[1], c[1], -c[1], c[1]) * t285;
        const Q t291 = shuffled<1, 0, 3, 2>(t290);
        const Q t292 = t289 + t291;
        const Q t293 = t289 - t291;
        const Q t294 = shuffled<2, 3, 6, 7>(t116, t145);
        const Q t295 = joined(t224, t253);
        // complex block of 3
        const Q t296 = t294 + t295;
        const Q t297 = t294 - t295;
        const Q t298 = shuffled<0, 1, 4, 5>(t62, t91);
        const Q t299 = t296 + t298;
        const Q t300 = c[0] * t296;
        const Q t301 = t298 - t300;
        const Q t302 = Q(-c[1], c[1], -c[1], c[1]) * t297;
        const Q t303 = shuffled<1, 0, 3, 2>(t302);
        const Q t304 = t301 + t303;
        const Q t305 = t301 - t303;
        // complex block of 3
        const Q t306 = t287 + t299;
        const Q t307 = t287 - t299;
        const Q t308 = t306 + t275;
        io.pairs(0, 9, t308);
        const Q t309 = c[0] * t306;
        const Q t310 = t275 - t309;
        const Q t311 = Q(-c[1], c[1], -c[1], c[1]) * t307;
        const Q t312 = shuffled<1, 0, 3, 2>(t311);
        const Q t313 = t310 + t312;
        io.pairs(21, 30, t313);
        const Q t314 = t310 - t312;
        io.pairs(42, 51, t314);
        // complex block of 9, multiplier 7
        const Q t315 = c[10] * t292;
        const Q t316 = shuffled<1, 0, 3, 2>(t292);
        const Q t317 = Q(-c[11], c[11], -c[11], c[11]) * t316;
        const Q t318 = t315 + t317;
        const Q t319 = shuffled<1, 0, 3, 2>(t304);
        const Q t320 = c[8] * t319;
        const Q t321 = Q(c[9], -c[9], c[9], -c[9]) * t304;
        const Q t322 = t320 + t321;
        const Q t323 = flipped<1, 0, 1, 0>(t322);
        // complex block of 3
        const Q t324 = t318 + t323;
        const Q t325 = t318 - t323;
        const Q t326 = t324 + t280;
        io.pairs(7, 16, t326);
        const Q t327 = c[0] * t324;
        const Q t328 = t280 - t327;
        const Q t329 = Q(-c[1], c[1], -c[1], c[1]) * t325;
        const Q t330 = shuffled<1, 0, 3, 2>(t329);
        const Q t331 = t328 + t330;
        io.pairs(28, 37, t331);
        const Q t332 = t328 - t330;
        io.pairs(49, 58, t332);
        const Q t333 = shuffled<1, 0, 3, 2>(t293);
        // complex block of 9, multiplier 7
        const Q t334 = c[8] * t333;
        const Q t335 = Q(c[9], -c[9], c[9], -c[9]) * t293;
        const Q t336 = t334 + t335;
        const Q t337 = c[12] * t305;
        const Q t338 = shuffled<1, 0, 3, 2>(t305);
        const Q t339 = Q(c[13], -c[13], c[13], -c[13]) * t338;
        const Q t340 = t337 + t339;
        const Q t341 = flipped<1, 0, 1, 0>(t336);
        // complex block of 3
        const Q t342 = t341 + t340;
        const Q t343 = flipped<0, 1, 0, 1>(t340);
        const Q t344 = t336 + t343;
        const Q t345 = t342 + t281;
        io.pairs(14, 23, t345);
        const Q t346 = c[0] * t342;
        const Q t347 = t281 - t346;
        const Q t348 = c[1] * t344;
        const Q t349 = shuffled<1, 0, 3, 2>(t348);
        const Q t350 = t347 + t349;
        io.pairs(35, 44, t350);
        const Q t351 = t347 - t349;
        io.pairs(56, 2, t351);
        const Q t352 = shuffled<2, 3, 6, 7>(t107, t77);
        const Q t353 = shuffled<0, 1, 4, 5>(t215, t185);
        // complex block of 3
        const Q t354 = t352 + t353;
        const Q t355 = t352 - t353;
        const Q t356 = shuffled<0, 1, 4, 5>(t53, t23);
        const Q t357 = t354 + t356;
        const Q t358 = c[0] * t354;
        const Q t359 = t356 - t358;
        const Q t360 = Q(-c[1], c[1], -c[1], c[1]) * t355;
        const Q t361 = shuffled<1, 0, 3, 2>(t360);
        const Q t362 = t359 + t361;
        const Q t363 = t359 - t361;
        const Q t364 = shuffled<0, 1, 4, 5>(t161, t131);
        const Q t365 = shuffled<2, 3, 6, 7>(t215, t185);
        // complex block of 3
        const Q t366 = t364 + t365;
        const Q t367 = t364 - t365;
        const Q t368 = shuffled<2, 3, 6, 7>(t53, t23);
        const Q t369 = t366 + t368;
        const Q t370 = c[0] * t366;
        const Q t371 = t368 - t370;
        const Q t372 = Q(-c[1], c[1], -c[1], c[1]) * t367;
        const Q t373 = shuffled<1, 0, 3, 2>(t372);
        const Q t374 = t371 + t373;
        const Q t375 = t371 - t373;
        const Q t376 = shuffled<2, 3, 6, 7>(t161, t131);
        const Q t377 = joined(t269, t239);
        // complex block of 3
        const Q t378 = t376 + t377;
        const Q t379 = t376 - t377;
        const Q t380 = shuffled<0, 1, 4, 5>(t107, t77);
        const Q t381 = t378 + t380;
        const Q t382 = c[0] * t378;
        const Q t383 = t380 - t382;
        const Q t384 = Q(-c[1], c[1], -c[1], c[1]) * t379;
        const Q t385 = shuffled<1, 0, 3, 2>(t384);
        const Q t386 = t383 + t385;
        const Q t387 = t383 - t385;
        // complex block of 3
        const Q t388 = t369 + t381;
        const Q t389 = t369 - t381;
        const Q t390 = t388 + t357;
        io.pairs(18, 27, t390);
        const Q t391 = c[0] * t388;
        const Q t392 = t357 - t391;
        const Q t393 = Q(-c[1], c[1], -c[1], c[1]) * t389;
        const Q t394 = shuffled<1, 0, 3, 2>(t393);
        const Q t395 = t392 + t394;
        io.pairs(39, 48, t395);
        const Q t396 = t392 - t394;
        io.pairs(60, 6, t396);
        // complex block of 9, multiplier 7
        const Q t397 = c[10] * t374;
        const Q t398 = shuffled<1, 0, 3, 2>(t374);
        const Q t399 = Q(-c[11], c[11], -c[11], c[11]) * t398;
        const Q t400 = t397 + t399;
        const Q t401 = shuffled<1, 0, 3, 2>(t386);
        const Q t402 = c[8] * t401;
        const Q t403 = Q(c[9], -c[9], c[9], -c[9]) * t386;
        const Q t404 = t402 + t403;
        const Q t405 = flipped<1, 0, 1, 0>(t404);
        // complex block of 3
        const Q t406 = t400 + t405;
        const Q t407 = t400 - t405;
        const Q t408 = t406 + t362;
        io.pairs(25, 34, t408);
        const Q t409 = c[0] * t406;
        const Q t410 = t362 - t409;
        const Q t411 = Q(-c[1], c[1], -c[1], c[1]) * t407;
        const Q t412 = shuffled<1, 0, 3, 2>(t411);
        const Q t413 = t410 + t412;
        io.pairs(46, 55, t413);
        const Q t414 = t410 - t412;
        io.pairs(4, 13, t414);
        const Q t415 = shuffled<1, 0, 3, 2>(t375);
        // complex block of 9, multiplier 7
        const Q t416 = c[8] * t415;
        const Q t417 = Q(c[9], -c[9], c[9], -c[9]) * t375;
        const Q t418 = t416 + t417;
        const Q t419 = c[12] * t387;
        const Q t420 = shuffled<1, 0, 3, 2>(t387);
        const Q t421 = Q(c[13], -c[13], c[13], -c[13]) * t420;
        const Q t422 = t419 + t421;
        const Q t423 = flipped<1, 0, 1, 0>(t418);
        // complex block of 3
        const Q t424 = t423 + t422;
        const Q t425 = flipped<0, 1, 0, 1>(t422);
        const Q t426 = t418 + t425;
        const Q t427 = t424 + t363;
        io.pairs(32, 41, t427);
        const Q t428 = c[0] * t424;
        const Q t429 = t363 - t428;
        const Q t430 = c[1] * t426;
        const Q t431 = shuffled<1, 0, 3, 2>(t430);
        const Q t432 = t429 + t431;
        io.pairs(53, 62, t432);
        const Q t433 = t429 - t431;
        io.pairs(11, 20, t433);
        const Q t434 = shuffled<2, 3, 6, 7>(t76, t106);
        const Q t435 = shuffled<0, 1, 4, 5>(t184, t214);
        // complex block of 3
        const Q t436 = t434 + t435;
        const Q t437 = t434 - t435;
        const Q t438 = shuffled<0, 1, 4, 5>(t22, t52);
        const Q t439 = t436 + t438;
        const Q t440 = c[0] * t436;
        const Q t441 = t438 - t440;
        const Q t442 = Q(-c[1], c[1], -c[1], c[1]) * t437;
        const Q t443 = shuffled<1, 0, 3, 2>(t442);
        const Q t444 = t441 + t443;
        const Q t445 = t441 - t443;
        const Q t446 = shuffled<0, 1, 4, 5>(t130, t160);
        const Q t447 = shuffled<2, 3, 6, 7>(t184, t214);
        // complex block of 3
        const Q t448 = t446 + t447;
        const Q t449 = t446 - t447;
        const Q t450 = shuffled<2, 3, 6, 7>(t22, t52);
        const Q t451 = t448 + t450;
        const Q t452 = c[0] * t448;
        const Q t453 = t450 - t452;
        const Q t454 = Q(-c[1], c[1], -c[1], c[1]) * t449;
        const Q t455 = shuffled<1, 0, 3, 2>(t454);
        const Q t456 = t453 + t455;
        const Q t457 = t453 - t455;
        const Q t458 = shuffled<2, 3, 6, 7>(t130, t160);
        const Q t459 = joined(t238, t268);
        // complex block of 3
        const Q t460 = t458 + t459;
        const Q t461 = t458 - t459;
        const Q t462 = shuffled<0, 1, 4, 5>(t76, t106);
        const Q t463 = t460 + t462;
        const Q t464 = c[0] * t460;
        const Q t465 = t462 - t464;
        const Q t466 = Q(-c[1], c[1], -c[1], c[1]) * t461;
        const Q t467 = shuffled<1, 0, 3, 2>(t466);
        const Q t468 = t465 + t467;
        const Q t469 = t465 - t467;
        // complex block of 3
        const Q t470 = t451 + t463;
        const Q t471 = t451 - t463;
        const Q t472 = t470 + t439;
        io.pairs(36, 45, t472);
        const Q t473 = c[0] * t470;
        const Q t474 = t439 - t473;
        const Q t475 = Q(-c[1], c[1], -c[1], c[1]) * t471;
        const Q t476 = shuffled<1, 0, 3, 2>(t475);
        const Q t477 = t474 + t476;
        io.pairs(57, 3, t477);
        const Q t478 = t474 - t476;
        io.pairs(15, 24, t478);
        // complex block of 9, multiplier 7
        const Q t479 = c[10] * t456;
        const Q t480 = shuffled<1, 0, 3, 2>(t456);
        const Q t481 = Q(-c[11], c[11], -c[11], c[11]) * t480;
        const Q t482 = t479 + t481;
        const Q t483 = shuffled<1, 0, 3, 2>(t468);
        const Q t484 = c[8] * t483;
        const Q t485 = Q(c[9], -c[9], c[9], -c[9]) * t468;
        const Q t486 = t484 + t485;
        const Q t487 = flipped<1, 0, 1, 0>(t486);
        // complex block of 3
        const Q t488 = t482 + t487;
        const Q t489 = t482 - t487;
        const Q t490 = t488 + t444;
        io.pairs(43, 52, t490);
        const Q t491 = c[0] * t488;
        const Q t492 = t444 - t491;
        const Q t493 = Q(-c[1], c[1], -c[1], c[1]) * t489;
        const Q t494 = shuffled<1, 0, 3, 2>(t493);
        const Q t495 = t492 + t494;
        io.pairs(1, 10, t495);
        const Q t496 = t492 - t494;
        io.pairs(22, 31, t496);
        const Q t497 = shuffled<1, 0, 3, 2>(t457);
        // complex block of 9, multiplier 7
        const Q t498 = c[8] * t497;
        const Q t499 = Q(c[9], -c[9], c[9], -c[9]) * t457;
        const Q t500 = t498 + t499;
        const Q t501 = c[12] * t469;
        const Q t502 = shuffled<1, 0, 3, 2>(t469);
        const Q t503 = Q(c[13], -c[13], c[13], -c[13]) * t502;
        const Q t504 = t501 + t503;
        const Q t505 = flipped<1, 0, 1, 0>(t500);
        // complex block of 3
        const Q t506 = t505 + t504;
        const Q t507 = flipped<0, 1, 0, 1>(t504);
        const Q t508 = t500 + t507;
        const Q t509 = t506 + t445;
        io.pairs(50, 59, t509);
        const Q t510 = c[0] * t506;
        const Q t511 = t445 - t510;
        const Q t512 = c[1] * t508;
        const Q t513 = shuffled<1, 0, 3, 2>(t512);
        const Q t514 = t511 + t513;
        io.pairs(8, 17, t514);
        const Q t515 = t511 - t513;
        io.pairs(29, 38, t515);
        const Q t516 = shuffled<2, 3, 4, 5>(t92, t146);
        // complex block of 3
        const Q t517 = t516 + t200;
        const Q t518 = t516 - t200;
        const Q t519 = t517 + t38;
        const Q t520 = c[0] * t517;
        const Q t521 = t38 - t520;
        const Q t522 = Q(-c[1], c[1], -c[1], c[1]) * t518;
        const Q t523 = shuffled<1, 0, 3, 2>(t522);
        const Q t524 = t521 + t523;
        const Q t525 = t521 - t523;
        const P t526 = part<1>(t146);
        // complex block of 3
        const P t527 = t526 + t254;
        const P t528 = part<0>(t92);
        const P t529 = t527 + t528;
        const P t530 = part<1>(t519);
        const V t531 = part<0>(t530);
        const V t532 = part<0>(t529);
        // complex block of 3
        const V t533 = t531 + t532;
        const V t534 = part<1>(t530);
        const V t535 = part<1>(t529);
        const V t536 = t534 + t535;
        const Q t537 = shuffled<2, 3, 6, 7>(t146, t519);
        const Q t538 = joined(t254, t529);
        // complex block of 3
        const Q t539 = t537 - t538;
        const P t540 = joined(t533, t536);
        const P t541 = part<0>(t519);
        // complex block of 3
        const P t542 = t540 + t541;
        io.pair(54, t542);
        const Q t543 = shuffled<0, 1, 4, 5>(t92, t519);
        const Q t544 = joined(t527, t540);
        // complex block of 3
        const Q t545 = c[0] * t544;
        const Q t546 = t543 - t545;
        const Q t547 = Q(-c[1], c[1], -c[1], c[1]) * t539;
        const Q t548 = shuffled<1, 0, 3, 2>(t547);
        const Q t549 = t546 + t548;
        const P t550 = part<1>(t549);
        io.pair(12, t550);
        const Q t551 = t546 - t548;
        const P t552 = part<1>(t551);
        io.pair(33, t552);
        const Q t553 = shuffled<0, 1, 6, 7>(t549, t525);
        const Q t554 = shuffled<1, 0, 3, 2>(t553);
        // complex block of 9, multiplier 7
        const Q t555 = c[8] * t554;
        const Q t556 = Q(c[9], -c[9], c[9], -c[9]) * t553;
        const Q t557 = t555 + t556;
        const Q t558 = shuffled<2, 3, 4, 5>(t524, t551);
        const Q t559 = Q(c[10], c[10], c[12], c[12]) * t558;
        const Q t560 = shuffled<1, 0, 3, 2>(t558);
        const Q t561 = Q(-c[11], c[11], c[13], -c[13]) * t560;
        const Q t562 = t559 + t561;
        const Q t563 = flipped<1, 0, 1, 0>(t557);
        // complex block of 3
        const Q t564 = t563 + t562;
        const Q t565 = flipped<1, 1, 1, 0>(t563);
        const Q t566 = flipped<0, 0, 0, 1>(t562);
        const Q t567 = t565 + t566;
        const Q t568 = shuffled<0, 1, 4, 5>(t524, t525);
        const Q t569 = t564 + t568;
        io.pairs(61, 5, t569);
        const Q t570 = c[0] * t564;
        const Q t571 = t568 - t570;
        const Q t572 = Q(-c[1], c[1], c[1], c[1]) * t567;
        const Q t573 = shuffled<1, 0, 3, 2>(t572);
        const Q t574 = t571 + t573;
        io.pairs(19, 26, t574);
        const Q t575 = t571 - t573;
        io.pairs(40, 47, t575);
    }
};

}  // namespace zulg
