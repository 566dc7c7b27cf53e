// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 63.
// Forward DFT of 63 real points, prime-factor 7, 9; two lanes to a register.
// 145 sums, 113 differences, 160 products of registers, which do the 853 steps of the graph, those with
// `scale` included; 81 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<63> {
    static constexpr int steps = 853;  // with `scale`
    static constexpr double inverseRoot = 0.1259881576697424;  // 1/sqrt(63), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 10/7
        0.6234898018587335,  // c[4]: cos 2 pi 8/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 10/7
        0.7818314824680298,  // c[7]: sin 2 pi 8/7
        0.9396926207859084,  // c[8]: -cos 2 pi 5/9
        0.3420201433256687,  // c[9]: -sin 2 pi 5/9
        0.984807753012208,  // c[10]: -sin 2 pi 7/9
        0.17364817766693036,  // c[11]: cos 2 pi 7/9
        0.766044443118978,  // c[12]: cos 2 pi 1/9
        0.6427876096865394,  // c[13]: sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x9_16 = io.in(9, 16);
        const P x54_61 = io.in(54, 61);
        // real block of 7, multiplier 2
        const P t0 = x9_16 + x54_61;
        const P t1 = x9_16 - x54_61;
        const P x45_52 = io.in(45, 52);
        const P x18_25 = io.in(18, 25);
        const P t2 = x45_52 + x18_25;
        const P t3 = x45_52 - x18_25;
        const P x36_43 = io.in(36, 43);
        const P x27_34 = io.in(27, 34);
        const P t4 = x36_43 + x27_34;
        const P t5 = x36_43 - x27_34;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x0_7 = io.in(0, 7);
        const P t8 = t7 + x0_7;
        const P t9 = c[2] * t0;
        const P t10 = x0_7 - t9;
        const P t11 = c[3] * t2;
        const P t12 = t10 - t11;
        const P t13 = c[4] * t4;
        const P t14 = t12 + t13;
        const P t15 = c[5] * t1;
        const P t16 = c[6] * t3;
        const P t17 = t15 + t16;
        const P t18 = c[7] * t5;
        const P t19 = t17 + t18;
        const P t20 = c[3] * t0;
        const P t21 = x0_7 - t20;
        const P t22 = c[4] * t2;
        const P t23 = t21 + t22;
        const P t24 = c[2] * t4;
        const P t25 = t23 - t24;
        const P t26 = c[6] * t1;
        const P t27 = c[7] * t3;
        const P t28 = t26 + t27;
        const P t29 = c[5] * t5;
        const P t30 = t28 - t29;
        const P t31 = c[4] * t0;
        const P t32 = c[2] * t2;
        const P t33 = t31 - t32;
        const P t34 = c[3] * t4;
        const P t35 = t33 - t34;
        const P t36 = t35 + x0_7;
        const P t37 = c[7] * t1;
        const P t38 = c[5] * t3;
        const P t39 = t37 - t38;
        const P t40 = c[6] * t5;
        const P t41 = t39 - t40;
        const P x23_30 = io.in(23, 30);
        const P x5_12 = io.in(5, 12);
        // real block of 7, multiplier 2
        const P t42 = x23_30 + x5_12;
        const P t43 = x23_30 - x5_12;
        const P x59_3 = io.in(59, 3);
        const P x32_39 = io.in(32, 39);
        const P t44 = x59_3 + x32_39;
        const P t45 = x59_3 - x32_39;
        const P x50_57 = io.in(50, 57);
        const P x41_48 = io.in(41, 48);
        const P t46 = x50_57 + x41_48;
        const P t47 = x50_57 - x41_48;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P x14_21 = io.in(14, 21);
        const P t50 = t49 + x14_21;
        const P t51 = c[2] * t42;
        const P t52 = x14_21 - t51;
        const P t53 = c[3] * t44;
        const P t54 = t52 - t53;
        const P t55 = c[4] * t46;
        const P t56 = t54 + t55;
        const P t57 = c[5] * t43;
        const P t58 = c[6] * t45;
        const P t59 = t57 + t58;
        const P t60 = c[7] * t47;
        const P t61 = t59 + t60;
        const P t62 = c[3] * t42;
        const P t63 = x14_21 - t62;
        const P t64 = c[4] * t44;
        const P t65 = t63 + t64;
        const P t66 = c[2] * t46;
        const P t67 = t65 - t66;
        const P t68 = c[6] * t43;
        const P t69 = c[7] * t45;
        const P t70 = t68 + t69;
        const P t71 = c[5] * t47;
        const P t72 = t70 - t71;
        const P t73 = c[4] * t42;
        const P t74 = c[2] * t44;
        const P t75 = t73 - t74;
        const P t76 = c[3] * t46;
        const P t77 = t75 - t76;
        const P t78 = t77 + x14_21;
        const P t79 = c[7] * t43;
        const P t80 = c[5] * t45;
        const P t81 = t79 - t80;
        const P t82 = c[6] * t47;
        const P t83 = t81 - t82;
        const P x37_44 = io.in(37, 44);
        const P x19_26 = io.in(19, 26);
        // real block of 7, multiplier 2
        const P t84 = x37_44 + x19_26;
        const P t85 = x37_44 - x19_26;
        const P x10_17 = io.in(10, 17);
        const P x46_53 = io.in(46, 53);
        const P t86 = x10_17 + x46_53;
        const P t87 = x10_17 - x46_53;
        const P x1_8 = io.in(1, 8);
        const P x55_62 = io.in(55, 62);
        const P t88 = x1_8 + x55_62;
        const P t89 = x1_8 - x55_62;
        const P t90 = t84 + t86;
        const P t91 = t90 + t88;
        const P x28_35 = io.in(28, 35);
        const P t92 = t91 + x28_35;
        const P t93 = c[2] * t84;
        const P t94 = x28_35 - t93;
        const P t95 = c[3] * t86;
        const P t96 = t94 - t95;
        const P t97 = c[4] * t88;
        const P t98 = t96 + t97;
        const P t99 = c[5] * t85;
        const P t100 = c[6] * t87;
        const P t101 = t99 + t100;
        const P t102 = c[7] * t89;
        const P t103 = t101 + t102;
        const P t104 = c[3] * t84;
        const P t105 = x28_35 - t104;
        const P t106 = c[4] * t86;
        const P t107 = t105 + t106;
        const P t108 = c[2] * t88;
        const P t109 = t107 - t108;
        const P t110 = c[6] * t85;
        const P t111 = c[7] * t87;
        const P t112 = t110 + t111;
        const P t113 = c[5] * t89;
        const P t114 = t112 - t113;
        const P t115 = c[4] * t84;
        const P t116 = c[2] * t86;
        const P t117 = t115 - t116;
        const P t118 = c[3] * t88;
        const P t119 = t117 - t118;
        const P t120 = t119 + x28_35;
        const P t121 = c[7] * t85;
        const P t122 = c[5] * t87;
        const P t123 = t121 - t122;
        const P t124 = c[6] * t89;
        const P t125 = t123 - t124;
        const P x51_58 = io.in(51, 58);
        const P x33_40 = io.in(33, 40);
        // real block of 7, multiplier 2
        const P t126 = x51_58 + x33_40;
        const P t127 = x51_58 - x33_40;
        const P x24_31 = io.in(24, 31);
        const P x60_4 = io.in(60, 4);
        const P t128 = x24_31 + x60_4;
        const P t129 = x24_31 - x60_4;
        const P x15_22 = io.in(15, 22);
        const P x6_13 = io.in(6, 13);
        const P t130 = x15_22 + x6_13;
        const P t131 = x15_22 - x6_13;
        const P t132 = t126 + t128;
        const P t133 = t132 + t130;
        const P x42_49 = io.in(42, 49);
        const P t134 = t133 + x42_49;
        const P t135 = c[2] * t126;
        const P t136 = x42_49 - t135;
        const P t137 = c[3] * t128;
        const P t138 = t136 - t137;
        const P t139 = c[4] * t130;
        const P t140 = t138 + t139;
        const P t141 = c[5] * t127;
        const P t142 = c[6] * t129;
        const P t143 = t141 + t142;
        const P t144 = c[7] * t131;
        const P t145 = t143 + t144;
        const P t146 = c[3] * t126;
        const P t147 = x42_49 - t146;
        const P t148 = c[4] * t128;
        const P t149 = t147 + t148;
        const P t150 = c[2] * t130;
        const P t151 = t149 - t150;
        const P t152 = c[6] * t127;
        const P t153 = c[7] * t129;
        const P t154 = t152 + t153;
        const P t155 = c[5] * t131;
        const P t156 = t154 - t155;
        const P t157 = c[4] * t126;
        const P t158 = c[2] * t128;
        const P t159 = t157 - t158;
        const P t160 = c[3] * t130;
        const P t161 = t159 - t160;
        const P t162 = t161 + x42_49;
        const P t163 = c[7] * t127;
        const P t164 = c[5] * t129;
        const P t165 = t163 - t164;
        const P t166 = c[6] * t131;
        const P t167 = t165 - t166;
        const V x2 = io.in(2);
        const V x47 = io.in(47);
        // real block of 7, multiplier 2
        const V t168 = x2 + x47;
        const V t169 = x2 - x47;
        const V x38 = io.in(38);
        const V x11 = io.in(11);
        const V t170 = x38 + x11;
        const V t171 = x38 - x11;
        const V x29 = io.in(29);
        const V x20 = io.in(20);
        const V t172 = x29 + x20;
        const V t173 = x29 - x20;
        const V t174 = t168 + t170;
        const V t175 = t174 + t172;
        const V x56 = io.in(56);
        const V t176 = t175 + x56;
        const V t177 = c[2] * t168;
        const V t178 = x56 - t177;
        const V t179 = c[3] * t170;
        const V t180 = t178 - t179;
        const V t181 = c[4] * t172;
        const V t182 = t180 + t181;
        const V t183 = c[5] * t169;
        const V t184 = c[6] * t171;
        const V t185 = t183 + t184;
        const V t186 = c[7] * t173;
        const V t187 = t185 + t186;
        const V t188 = c[3] * t168;
        const V t189 = x56 - t188;
        const V t190 = c[4] * t170;
        const V t191 = t189 + t190;
        const V t192 = c[2] * t172;
        const V t193 = t191 - t192;
        const V t194 = c[6] * t169;
        const V t195 = c[7] * t171;
        const V t196 = t194 + t195;
        const V t197 = c[5] * t173;
        const V t198 = t196 - t197;
        const V t199 = c[4] * t168;
        const V t200 = c[2] * t170;
        const V t201 = t199 - t200;
        const V t202 = c[3] * t172;
        const V t203 = t201 - t202;
        const V t204 = t203 + x56;
        const V t205 = c[7] * t169;
        const V t206 = c[5] * t171;
        const V t207 = t205 - t206;
        const V t208 = c[6] * t173;
        const V t209 = t207 - t208;
        const P t210 = shuffled<1, 2>(t50, t92);
        // real block of 3
        const P t211 = t210 + t134;
        const P t212 = t210 - t134;
        const P t213 = t211 + t8;
        const P t214 = c[0] * t211;
        const P t215 = t8 - t214;
        const V t216 = part<1>(t92);
        // real block of 3
        const V t217 = t216 + t176;
        const V t218 = part<0>(t50);
        const V t219 = t217 + t218;
        const V t220 = part<1>(t213);
        // real block of 3
        const V t221 = t220 + t219;
        const P t222 = shuffled<1, 3>(t92, t213);
        const P t223 = joined(t176, t219);
        // real block of 3
        const P t224 = t222 - t223;
        const V t225 = part<0>(t213);
        // real block of 3
        const V t226 = t221 + t225;
        io.re(0, t226);
        const P t227 = shuffled<0, 2>(t50, t213);
        const P t228 = joined(t217, t221);
        // real block of 3
        const P t229 = c[0] * t228;
        const P t230 = t227 - t229;
        const P t231 = P(c[1], -c[1]) * t224;
        const P t232 = shuffled<1, 3>(t230, t231);
        io.pair(21, t232);
        // real block of 3
        const P t233 = c[1] * t212;
        const P t234 = shuffled<1, 3>(t233, t215);
        // real block of 9, multiplier 7
        const P t235 = c[10] * t234;
        const P t236 = shuffled<1, 0>(t234);
        const P t237 = P(c[11], -c[11]) * t236;
        const P t238 = t235 + t237;
        const P t239 = shuffled<0, 2>(t230, t231);
        const P t240 = P(-c[8], c[8]) * t239;
        const P t241 = shuffled<1, 0>(t239);
        const P t242 = c[9] * t241;
        const P t243 = t240 + t242;
        // complex block of 3
        const P t244 = t238 + t243;
        const P t245 = t238 - t243;
        const P t246 = shuffled<0, 2>(t215, t233);
        const P t247 = flipped<0, 1>(t246);
        const P t248 = t244 + t247;
        io.pair(7, t248);
        const P t249 = P(-c[0], c[0]) * t244;
        const P t250 = t246 + t249;
        const P t251 = c[1] * t245;
        const P t252 = shuffled<1, 0>(t251);
        const P t253 = t250 + t252;
        io.pair(28, negated<0, 1>(t253));
        const P t254 = shuffled<0, 3>(t250, t252);
        const P t255 = shuffled<0, 3>(t252, t250);
        const P t256 = t254 - t255;
        io.pair(14, negated<0, 1>(t256));
        const P t257 = shuffled<1, 3>(t56, t61);
        const P t258 = shuffled<0, 2>(t140, t145);
        // complex block of 3
        const P t259 = t257 + t258;
        const P t260 = shuffled<0, 3>(t257, t258);
        const P t261 = shuffled<0, 3>(t258, t257);
        const P t262 = t260 - t261;
        const P t263 = shuffled<0, 2>(t14, t19);
        const P t264 = t259 + t263;
        const P t265 = P(-c[0], c[0]) * t259;
        const P t266 = flipped<0, 1>(t263);
        const P t267 = t265 + t266;
        const P t268 = P(-c[1], c[1]) * t262;
        const P t269 = shuffled<1, 0>(t268);
        const P t270 = t267 + t269;
        const P t271 = t267 - t269;
        const P t272 = shuffled<0, 2>(t98, t103);
        const P t273 = shuffled<1, 3>(t140, t145);
        // complex block of 3
        const P t274 = t272 + t273;
        const P t275 = shuffled<0, 3>(t272, t273);
        const P t276 = shuffled<0, 3>(t273, t272);
        const P t277 = t275 - t276;
        const P t278 = shuffled<1, 3>(t14, t19);
        const P t279 = t274 + t278;
        const P t280 = P(-c[0], c[0]) * t274;
        const P t281 = flipped<0, 1>(t278);
        const P t282 = t280 + t281;
        const P t283 = P(-c[1], c[1]) * t277;
        const P t284 = shuffled<1, 0>(t283);
        const P t285 = t282 + t284;
        const P t286 = t282 - t284;
        const P t287 = shuffled<1, 3>(t98, t103);
        const P t288 = joined(t182, t187);
        // complex block of 3
        const P t289 = t287 + t288;
        const P t290 = shuffled<0, 3>(t287, t288);
        const P t291 = shuffled<0, 3>(t288, t287);
        const P t292 = t290 - t291;
        const P t293 = shuffled<0, 2>(t56, t61);
        const P t294 = t289 + t293;
        const P t295 = P(-c[0], c[0]) * t289;
        const P t296 = flipped<0, 1>(t293);
        const P t297 = t295 + t296;
        const P t298 = P(-c[1], c[1]) * t292;
        const P t299 = shuffled<1, 0>(t298);
        const P t300 = t297 + t299;
        const P t301 = t297 - t299;
        // complex block of 3
        const P t302 = t279 + t294;
        const P t303 = shuffled<0, 3>(t279, t294);
        const P t304 = shuffled<0, 3>(t294, t279);
        const P t305 = t303 - t304;
        const P t306 = t302 + t264;
        io.pair(9, negated<0, 1>(t306));
        const P t307 = P(-c[0], c[0]) * t302;
        const P t308 = flipped<0, 1>(t264);
        const P t309 = t307 + t308;
        const P t310 = P(-c[1], c[1]) * t305;
        const P t311 = shuffled<1, 0>(t310);
        const P t312 = t309 + t311;
        io.pair(30, t312);
        const P t313 = t309 - t311;
        io.pair(12, negated<0, 1>(t313));
        // complex block of 9, multiplier 7
        const P t314 = c[11] * t285;
        const P t315 = shuffled<1, 0>(t285);
        const P t316 = P(-c[10], c[10]) * t315;
        const P t317 = t314 + t316;
        const P t318 = shuffled<1, 0>(t300);
        const P t319 = c[9] * t318;
        const P t320 = P(c[8], -c[8]) * t300;
        const P t321 = t319 + t320;
        const P t322 = flipped<1, 0>(t321);
        // complex block of 3
        const P t323 = t317 + t322;
        const P t324 = t317 - t322;
        const P t325 = t323 + t270;
        io.pair(16, t325);
        const P t326 = c[0] * t323;
        const P t327 = t270 - t326;
        const P t328 = P(-c[1], c[1]) * t324;
        const P t329 = shuffled<1, 0>(t328);
        const P t330 = t327 + t329;
        io.pair(26, negated<0, 1>(t330));
        const P t331 = t327 - t329;
        io.pair(5, negated<0, 1>(t331));
        const P t332 = shuffled<1, 0>(t286);
        // complex block of 9, multiplier 7
        const P t333 = c[9] * t332;
        const P t334 = P(c[8], -c[8]) * t286;
        const P t335 = t333 + t334;
        const P t336 = c[12] * t301;
        const P t337 = shuffled<1, 0>(t301);
        const P t338 = P(c[13], -c[13]) * t337;
        const P t339 = t336 + t338;
        const P t340 = flipped<1, 0>(t335);
        // complex block of 3
        const P t341 = t340 + t339;
        const P t342 = flipped<0, 1>(t339);
        const P t343 = t335 + t342;
        const P t344 = t341 + t271;
        io.pair(23, t344);
        const P t345 = c[0] * t341;
        const P t346 = t271 - t345;
        const P t347 = c[1] * t343;
        const P t348 = shuffled<1, 0>(t347);
        const P t349 = t346 + t348;
        io.pair(19, negated<0, 1>(t349));
        const P t350 = t346 - t348;
        io.pair(2, t350);
        const P t351 = shuffled<1, 3>(t67, t72);
        const P t352 = shuffled<0, 2>(t151, t156);
        // complex block of 3
        const P t353 = t351 + t352;
        const P t354 = t351 - t352;
        const P t355 = shuffled<0, 2>(t25, t30);
        const P t356 = t353 + t355;
        const P t357 = c[0] * t353;
        const P t358 = t355 - t357;
        const P t359 = P(-c[1], c[1]) * t354;
        const P t360 = shuffled<1, 0>(t359);
        const P t361 = t358 + t360;
        const P t362 = t358 - t360;
        const P t363 = shuffled<0, 2>(t109, t114);
        const P t364 = shuffled<1, 3>(t151, t156);
        // complex block of 3
        const P t365 = t363 + t364;
        const P t366 = t363 - t364;
        const P t367 = shuffled<1, 3>(t25, t30);
        const P t368 = t365 + t367;
        const P t369 = c[0] * t365;
        const P t370 = t367 - t369;
        const P t371 = P(-c[1], c[1]) * t366;
        const P t372 = shuffled<1, 0>(t371);
        const P t373 = t370 + t372;
        const P t374 = t370 - t372;
        const P t375 = shuffled<1, 3>(t109, t114);
        const P t376 = joined(t193, t198);
        // complex block of 3
        const P t377 = t375 + t376;
        const P t378 = t375 - t376;
        const P t379 = shuffled<0, 2>(t67, t72);
        const P t380 = t377 + t379;
        const P t381 = c[0] * t377;
        const P t382 = t379 - t381;
        const P t383 = P(-c[1], c[1]) * t378;
        const P t384 = shuffled<1, 0>(t383);
        const P t385 = t382 + t384;
        const P t386 = t382 - t384;
        // complex block of 3
        const P t387 = t368 + t380;
        const P t388 = t368 - t380;
        const P t389 = t387 + t356;
        io.pair(18, t389);
        const P t390 = c[0] * t387;
        const P t391 = t356 - t390;
        const P t392 = P(-c[1], c[1]) * t388;
        const P t393 = shuffled<1, 0>(t392);
        const P t394 = t391 + t393;
        io.pair(24, negated<0, 1>(t394));
        const P t395 = t391 - t393;
        io.pair(3, negated<0, 1>(t395));
        // complex block of 9, multiplier 7
        const P t396 = c[11] * t373;
        const P t397 = shuffled<1, 0>(t373);
        const P t398 = P(-c[10], c[10]) * t397;
        const P t399 = t396 + t398;
        const P t400 = shuffled<1, 0>(t385);
        const P t401 = c[9] * t400;
        const P t402 = P(c[8], -c[8]) * t385;
        const P t403 = t401 + t402;
        const P t404 = flipped<1, 0>(t403);
        // complex block of 3
        const P t405 = t399 + t404;
        const P t406 = t399 - t404;
        const P t407 = t405 + t361;
        io.pair(25, t407);
        const P t408 = c[0] * t405;
        const P t409 = t361 - t408;
        const P t410 = P(-c[1], c[1]) * t406;
        const P t411 = shuffled<1, 0>(t410);
        const P t412 = t409 + t411;
        io.pair(17, negated<0, 1>(t412));
        const P t413 = t409 - t411;
        io.pair(4, t413);
        const P t414 = shuffled<1, 0>(t374);
        // complex block of 9, multiplier 7
        const P t415 = c[9] * t414;
        const P t416 = P(c[8], -c[8]) * t374;
        const P t417 = t415 + t416;
        const P t418 = c[12] * t386;
        const P t419 = shuffled<1, 0>(t386);
        const P t420 = P(c[13], -c[13]) * t419;
        const P t421 = t418 + t420;
        const P t422 = flipped<1, 0>(t417);
        // complex block of 3
        const P t423 = t422 + t421;
        const P t424 = flipped<0, 1>(t421);
        const P t425 = t417 + t424;
        const P t426 = t423 + t362;
        io.pair(31, negated<0, 1>(t426));
        const P t427 = c[0] * t423;
        const P t428 = t362 - t427;
        const P t429 = c[1] * t425;
        const P t430 = shuffled<1, 0>(t429);
        const P t431 = t428 + t430;
        io.pair(10, negated<0, 1>(t431));
        const P t432 = t428 - t430;
        io.pair(11, t432);
        const P t433 = shuffled<1, 3>(t78, t83);
        const P t434 = shuffled<0, 2>(t162, t167);
        // complex block of 3
        const P t435 = t433 + t434;
        const P t436 = t433 - t434;
        const P t437 = shuffled<0, 2>(t36, t41);
        const P t438 = t435 + t437;
        const P t439 = c[0] * t435;
        const P t440 = t437 - t439;
        const P t441 = P(-c[1], c[1]) * t436;
        const P t442 = shuffled<1, 0>(t441);
        const P t443 = t440 + t442;
        const P t444 = t440 - t442;
        const P t445 = shuffled<0, 2>(t120, t125);
        const P t446 = shuffled<1, 3>(t162, t167);
        // complex block of 3
        const P t447 = t445 + t446;
        const P t448 = t445 - t446;
        const P t449 = shuffled<1, 3>(t36, t41);
        const P t450 = t447 + t449;
        const P t451 = c[0] * t447;
        const P t452 = t449 - t451;
        const P t453 = P(-c[1], c[1]) * t448;
        const P t454 = shuffled<1, 0>(t453);
        const P t455 = t452 + t454;
        const P t456 = t452 - t454;
        const P t457 = shuffled<1, 3>(t120, t125);
        const P t458 = joined(t204, t209);
        // complex block of 3
        const P t459 = t457 + t458;
        const P t460 = t457 - t458;
        const P t461 = shuffled<0, 2>(t78, t83);
        const P t462 = t459 + t461;
        const P t463 = c[0] * t459;
        const P t464 = t461 - t463;
        const P t465 = P(-c[1], c[1]) * t460;
        const P t466 = shuffled<1, 0>(t465);
        const P t467 = t464 + t466;
        const P t468 = t464 - t466;
        // complex block of 3
        const P t469 = t450 + t462;
        const P t470 = t450 - t462;
        const P t471 = t469 + t438;
        io.pair(27, t471);
        const P t472 = c[0] * t469;
        const P t473 = t438 - t472;
        const P t474 = P(-c[1], c[1]) * t470;
        const P t475 = shuffled<1, 0>(t474);
        const P t476 = t473 + t475;
        io.pair(15, negated<0, 1>(t476));
        const P t477 = t473 - t475;
        io.pair(6, t477);
        // complex block of 9, multiplier 7
        const P t478 = c[11] * t455;
        const P t479 = shuffled<1, 0>(t455);
        const P t480 = P(-c[10], c[10]) * t479;
        const P t481 = t478 + t480;
        const P t482 = shuffled<1, 0>(t467);
        const P t483 = c[9] * t482;
        const P t484 = P(c[8], -c[8]) * t467;
        const P t485 = t483 + t484;
        const P t486 = flipped<1, 0>(t485);
        // complex block of 3
        const P t487 = t481 + t486;
        const P t488 = t481 - t486;
        const P t489 = t487 + t443;
        io.pair(29, negated<0, 1>(t489));
        const P t490 = c[0] * t487;
        const P t491 = t443 - t490;
        const P t492 = P(-c[1], c[1]) * t488;
        const P t493 = shuffled<1, 0>(t492);
        const P t494 = t491 + t493;
        io.pair(8, negated<0, 1>(t494));
        const P t495 = t491 - t493;
        io.pair(13, t495);
        const P t496 = shuffled<1, 0>(t456);
        // complex block of 9, multiplier 7
        const P t497 = c[9] * t496;
        const P t498 = P(c[8], -c[8]) * t456;
        const P t499 = t497 + t498;
        const P t500 = c[12] * t468;
        const P t501 = shuffled<1, 0>(t468);
        const P t502 = P(c[13], -c[13]) * t501;
        const P t503 = t500 + t502;
        const P t504 = flipped<1, 0>(t499);
        // complex block of 3
        const P t505 = t504 + t503;
        const P t506 = flipped<0, 1>(t503);
        const P t507 = t499 + t506;
        const P t508 = t505 + t444;
        io.pair(22, negated<0, 1>(t508));
        const P t509 = c[0] * t505;
        const P t510 = t444 - t509;
        const P t511 = c[1] * t507;
        const P t512 = shuffled<1, 0>(t511);
        const P t513 = t510 + t512;
        io.pair(1, negated<0, 1>(t513));
        const P t514 = t510 - t512;
        io.pair(20, t514);
    }
};

}  // namespace zulg
