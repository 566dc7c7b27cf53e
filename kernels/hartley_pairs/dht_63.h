// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 63.
// Hartley transform of 63 points, form F; two lanes to a register.
// 161 sums, 129 differences, 160 products of registers, which do the 915 steps of the graph, those with
// `scale` included; 112 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<63> {
    static constexpr int steps = 915;  // with `scale`
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
        const ConstantsOf<Ports, HartleyPairs> c{};
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
        io.out(0, t226);
        const P t227 = shuffled<0, 2>(t50, t213);
        const P t228 = joined(t217, t221);
        // real block of 3
        const P t229 = c[0] * t228;
        const P t230 = t227 - t229;
        // real block of 3
        const P t231 = c[1] * t212;
        const P t232 = shuffled<1, 3>(t231, t215);
        // real block of 9, multiplier 7
        const P t233 = c[10] * t232;
        const P t234 = shuffled<1, 0>(t232);
        const P t235 = P(c[11], -c[11]) * t234;
        const P t236 = t233 + t235;
        // real block of 3
        const P t237 = c[1] * t224;
        const P t238 = shuffled<0, 2>(t230, t237);
        // real block of 9, multiplier 7
        const P t239 = P(-c[8], c[8]) * t238;
        const P t240 = shuffled<1, 0>(t238);
        const P t241 = c[9] * t240;
        const P t242 = t239 + t241;
        // complex block of 3
        const P t243 = t236 + t242;
        const P t244 = t236 - t242;
        const P t245 = shuffled<0, 2>(t215, t231);
        const P t246 = flipped<0, 1>(t245);
        const P t247 = t243 + t246;
        const P t248 = P(-c[0], c[0]) * t243;
        const P t249 = t245 + t248;
        const P t250 = c[1] * t244;
        const P t251 = shuffled<1, 0>(t250);
        const P t252 = t249 + t251;
        const P t253 = shuffled<0, 3>(t249, t251);
        const P t254 = shuffled<0, 3>(t251, t249);
        const P t255 = t253 - t254;
        const P t256 = shuffled<1, 3>(t56, t61);
        const P t257 = shuffled<0, 2>(t140, t145);
        // complex block of 3
        const P t258 = t256 + t257;
        const P t259 = shuffled<0, 3>(t256, t257);
        const P t260 = shuffled<0, 3>(t257, t256);
        const P t261 = t259 - t260;
        const P t262 = shuffled<0, 2>(t14, t19);
        const P t263 = t258 + t262;
        const P t264 = P(-c[0], c[0]) * t258;
        const P t265 = flipped<0, 1>(t262);
        const P t266 = t264 + t265;
        const P t267 = P(-c[1], c[1]) * t261;
        const P t268 = shuffled<1, 0>(t267);
        const P t269 = t266 + t268;
        const P t270 = t266 - t268;
        const P t271 = shuffled<0, 2>(t98, t103);
        const P t272 = shuffled<1, 3>(t140, t145);
        // complex block of 3
        const P t273 = t271 + t272;
        const P t274 = shuffled<0, 3>(t271, t272);
        const P t275 = shuffled<0, 3>(t272, t271);
        const P t276 = t274 - t275;
        const P t277 = shuffled<1, 3>(t14, t19);
        const P t278 = t273 + t277;
        const P t279 = P(-c[0], c[0]) * t273;
        const P t280 = flipped<0, 1>(t277);
        const P t281 = t279 + t280;
        const P t282 = P(-c[1], c[1]) * t276;
        const P t283 = shuffled<1, 0>(t282);
        const P t284 = t281 + t283;
        const P t285 = t281 - t283;
        const P t286 = shuffled<1, 3>(t98, t103);
        const P t287 = joined(t182, t187);
        // complex block of 3
        const P t288 = t286 + t287;
        const P t289 = shuffled<0, 3>(t286, t287);
        const P t290 = shuffled<0, 3>(t287, t286);
        const P t291 = t289 - t290;
        const P t292 = shuffled<0, 2>(t56, t61);
        const P t293 = t288 + t292;
        const P t294 = P(-c[0], c[0]) * t288;
        const P t295 = flipped<0, 1>(t292);
        const P t296 = t294 + t295;
        const P t297 = P(-c[1], c[1]) * t291;
        const P t298 = shuffled<1, 0>(t297);
        const P t299 = t296 + t298;
        const P t300 = t296 - t298;
        // complex block of 3
        const P t301 = t278 + t293;
        const P t302 = shuffled<0, 3>(t278, t293);
        const P t303 = shuffled<0, 3>(t293, t278);
        const P t304 = t302 - t303;
        const P t305 = t301 + t263;
        const P t306 = P(-c[0], c[0]) * t301;
        const P t307 = flipped<0, 1>(t263);
        const P t308 = t306 + t307;
        const P t309 = P(-c[1], c[1]) * t304;
        const P t310 = shuffled<1, 0>(t309);
        const P t311 = t308 + t310;
        const P t312 = t308 - t310;
        // complex block of 9, multiplier 7
        const P t313 = c[11] * t284;
        const P t314 = shuffled<1, 0>(t284);
        const P t315 = P(-c[10], c[10]) * t314;
        const P t316 = t313 + t315;
        const P t317 = shuffled<1, 0>(t299);
        const P t318 = c[9] * t317;
        const P t319 = P(c[8], -c[8]) * t299;
        const P t320 = t318 + t319;
        const P t321 = flipped<1, 0>(t320);
        // complex block of 3
        const P t322 = t316 + t321;
        const P t323 = t316 - t321;
        const P t324 = t322 + t269;
        const P t325 = c[0] * t322;
        const P t326 = t269 - t325;
        const P t327 = P(-c[1], c[1]) * t323;
        const P t328 = shuffled<1, 0>(t327);
        const P t329 = t326 + t328;
        const P t330 = t326 - t328;
        const P t331 = shuffled<1, 0>(t285);
        // complex block of 9, multiplier 7
        const P t332 = c[9] * t331;
        const P t333 = P(c[8], -c[8]) * t285;
        const P t334 = t332 + t333;
        const P t335 = c[12] * t300;
        const P t336 = shuffled<1, 0>(t300);
        const P t337 = P(c[13], -c[13]) * t336;
        const P t338 = t335 + t337;
        const P t339 = flipped<1, 0>(t334);
        // complex block of 3
        const P t340 = t339 + t338;
        const P t341 = flipped<0, 1>(t338);
        const P t342 = t334 + t341;
        const P t343 = t340 + t270;
        const P t344 = c[0] * t340;
        const P t345 = t270 - t344;
        const P t346 = c[1] * t342;
        const P t347 = shuffled<1, 0>(t346);
        const P t348 = t345 + t347;
        const P t349 = t345 - t347;
        const P t350 = shuffled<1, 3>(t67, t72);
        const P t351 = shuffled<0, 2>(t151, t156);
        // complex block of 3
        const P t352 = t350 + t351;
        const P t353 = t350 - t351;
        const P t354 = shuffled<0, 2>(t25, t30);
        const P t355 = t352 + t354;
        const P t356 = c[0] * t352;
        const P t357 = t354 - t356;
        const P t358 = P(-c[1], c[1]) * t353;
        const P t359 = shuffled<1, 0>(t358);
        const P t360 = t357 + t359;
        const P t361 = t357 - t359;
        const P t362 = shuffled<0, 2>(t109, t114);
        const P t363 = shuffled<1, 3>(t151, t156);
        // complex block of 3
        const P t364 = t362 + t363;
        const P t365 = t362 - t363;
        const P t366 = shuffled<1, 3>(t25, t30);
        const P t367 = t364 + t366;
        const P t368 = c[0] * t364;
        const P t369 = t366 - t368;
        const P t370 = P(-c[1], c[1]) * t365;
        const P t371 = shuffled<1, 0>(t370);
        const P t372 = t369 + t371;
        const P t373 = t369 - t371;
        const P t374 = shuffled<1, 3>(t109, t114);
        const P t375 = joined(t193, t198);
        // complex block of 3
        const P t376 = t374 + t375;
        const P t377 = t374 - t375;
        const P t378 = shuffled<0, 2>(t67, t72);
        const P t379 = t376 + t378;
        const P t380 = c[0] * t376;
        const P t381 = t378 - t380;
        const P t382 = P(-c[1], c[1]) * t377;
        const P t383 = shuffled<1, 0>(t382);
        const P t384 = t381 + t383;
        const P t385 = t381 - t383;
        // complex block of 3
        const P t386 = t367 + t379;
        const P t387 = t367 - t379;
        const P t388 = t386 + t355;
        const P t389 = c[0] * t386;
        const P t390 = t355 - t389;
        const P t391 = P(-c[1], c[1]) * t387;
        const P t392 = shuffled<1, 0>(t391);
        const P t393 = t390 + t392;
        const P t394 = t390 - t392;
        // complex block of 9, multiplier 7
        const P t395 = c[11] * t372;
        const P t396 = shuffled<1, 0>(t372);
        const P t397 = P(-c[10], c[10]) * t396;
        const P t398 = t395 + t397;
        const P t399 = shuffled<1, 0>(t384);
        const P t400 = c[9] * t399;
        const P t401 = P(c[8], -c[8]) * t384;
        const P t402 = t400 + t401;
        const P t403 = flipped<1, 0>(t402);
        // complex block of 3
        const P t404 = t398 + t403;
        const P t405 = t398 - t403;
        const P t406 = t404 + t360;
        const P t407 = c[0] * t404;
        const P t408 = t360 - t407;
        const P t409 = P(-c[1], c[1]) * t405;
        const P t410 = shuffled<1, 0>(t409);
        const P t411 = t408 + t410;
        const P t412 = t408 - t410;
        const P t413 = shuffled<1, 0>(t373);
        // complex block of 9, multiplier 7
        const P t414 = c[9] * t413;
        const P t415 = P(c[8], -c[8]) * t373;
        const P t416 = t414 + t415;
        const P t417 = c[12] * t385;
        const P t418 = shuffled<1, 0>(t385);
        const P t419 = P(c[13], -c[13]) * t418;
        const P t420 = t417 + t419;
        const P t421 = flipped<1, 0>(t416);
        // complex block of 3
        const P t422 = t421 + t420;
        const P t423 = flipped<0, 1>(t420);
        const P t424 = t416 + t423;
        const P t425 = t422 + t361;
        const P t426 = c[0] * t422;
        const P t427 = t361 - t426;
        const P t428 = c[1] * t424;
        const P t429 = shuffled<1, 0>(t428);
        const P t430 = t427 + t429;
        const P t431 = t427 - t429;
        const P t432 = shuffled<1, 3>(t78, t83);
        const P t433 = shuffled<0, 2>(t162, t167);
        // complex block of 3
        const P t434 = t432 + t433;
        const P t435 = t432 - t433;
        const P t436 = shuffled<0, 2>(t36, t41);
        const P t437 = t434 + t436;
        const P t438 = c[0] * t434;
        const P t439 = t436 - t438;
        const P t440 = P(-c[1], c[1]) * t435;
        const P t441 = shuffled<1, 0>(t440);
        const P t442 = t439 + t441;
        const P t443 = t439 - t441;
        const P t444 = shuffled<0, 2>(t120, t125);
        const P t445 = shuffled<1, 3>(t162, t167);
        // complex block of 3
        const P t446 = t444 + t445;
        const P t447 = t444 - t445;
        const P t448 = shuffled<1, 3>(t36, t41);
        const P t449 = t446 + t448;
        const P t450 = c[0] * t446;
        const P t451 = t448 - t450;
        const P t452 = P(-c[1], c[1]) * t447;
        const P t453 = shuffled<1, 0>(t452);
        const P t454 = t451 + t453;
        const P t455 = t451 - t453;
        const P t456 = shuffled<1, 3>(t120, t125);
        const P t457 = joined(t204, t209);
        // complex block of 3
        const P t458 = t456 + t457;
        const P t459 = t456 - t457;
        const P t460 = shuffled<0, 2>(t78, t83);
        const P t461 = t458 + t460;
        const P t462 = c[0] * t458;
        const P t463 = t460 - t462;
        const P t464 = P(-c[1], c[1]) * t459;
        const P t465 = shuffled<1, 0>(t464);
        const P t466 = t463 + t465;
        const P t467 = t463 - t465;
        // complex block of 3
        const P t468 = t449 + t461;
        const P t469 = t449 - t461;
        const P t470 = t468 + t437;
        const P t471 = c[0] * t468;
        const P t472 = t437 - t471;
        const P t473 = P(-c[1], c[1]) * t469;
        const P t474 = shuffled<1, 0>(t473);
        const P t475 = t472 + t474;
        const P t476 = t472 - t474;
        // complex block of 9, multiplier 7
        const P t477 = c[11] * t454;
        const P t478 = shuffled<1, 0>(t454);
        const P t479 = P(-c[10], c[10]) * t478;
        const P t480 = t477 + t479;
        const P t481 = shuffled<1, 0>(t466);
        const P t482 = c[9] * t481;
        const P t483 = P(c[8], -c[8]) * t466;
        const P t484 = t482 + t483;
        const P t485 = flipped<1, 0>(t484);
        // complex block of 3
        const P t486 = t480 + t485;
        const P t487 = t480 - t485;
        const P t488 = t486 + t442;
        const P t489 = c[0] * t486;
        const P t490 = t442 - t489;
        const P t491 = P(-c[1], c[1]) * t487;
        const P t492 = shuffled<1, 0>(t491);
        const P t493 = t490 + t492;
        const P t494 = t490 - t492;
        const P t495 = shuffled<1, 0>(t455);
        // complex block of 9, multiplier 7
        const P t496 = c[9] * t495;
        const P t497 = P(c[8], -c[8]) * t455;
        const P t498 = t496 + t497;
        const P t499 = c[12] * t467;
        const P t500 = shuffled<1, 0>(t467);
        const P t501 = P(c[13], -c[13]) * t500;
        const P t502 = t499 + t501;
        const P t503 = flipped<1, 0>(t498);
        // complex block of 3
        const P t504 = t503 + t502;
        const P t505 = flipped<0, 1>(t502);
        const P t506 = t498 + t505;
        const P t507 = t504 + t443;
        const P t508 = c[0] * t504;
        const P t509 = t443 - t508;
        const P t510 = c[1] * t506;
        const P t511 = shuffled<1, 0>(t510);
        const P t512 = t509 + t511;
        const P t513 = t509 - t511;
        const P t514 = shuffled<0, 2>(t255, t305);
        const P t515 = shuffled<1, 3>(t255, t305);
        // output stage
        const P t516 = t514 + t515;
        io.out(14, 9, t516);
        const P t517 = t514 - t515;
        io.out(49, 54, t517);
        const P t518 = shuffled<0, 2>(t475, t476);
        const P t519 = shuffled<1, 3>(t475, t476);
        const P t520 = t518 + t519;
        io.out(15, 57, t520);
        const P t521 = t518 - t519;
        io.out(48, 6, t521);
        const P t522 = shuffled<0, 2>(t411, t412);
        const P t523 = shuffled<1, 3>(t411, t412);
        const P t524 = t522 + t523;
        io.out(17, 59, t524);
        const P t525 = t522 - t523;
        io.out(46, 4, t525);
        const P t526 = shuffled<0, 2>(t348, t349);
        const P t527 = shuffled<1, 3>(t348, t349);
        const P t528 = t526 + t527;
        io.out(19, 61, t528);
        const P t529 = t526 - t527;
        io.out(44, 2, t529);
        const P t530 = shuffled<0, 2>(t512, t513);
        const P t531 = shuffled<1, 3>(t512, t513);
        const P t532 = t530 - t531;
        io.out(62, 20, t532);
        const P t533 = t530 + t531;
        io.out(1, 43, t533);
        const V t534 = part<1>(t230);
        const V t535 = part<1>(t237);
        const V t536 = t534 + t535;
        io.out(21, t536);
        const V t537 = t534 - t535;
        io.out(42, t537);
        const P t538 = shuffled<0, 2>(t494, t507);
        const P t539 = shuffled<1, 3>(t494, t507);
        const P t540 = t538 + t539;
        io.out(50, 22, t540);
        const P t541 = t538 - t539;
        io.out(13, 41, t541);
        const P t542 = shuffled<0, 2>(t330, t343);
        const P t543 = shuffled<1, 3>(t330, t343);
        const P t544 = t542 - t543;
        io.out(58, 23, t544);
        const P t545 = t542 + t543;
        io.out(5, 40, t545);
        const P t546 = shuffled<0, 2>(t388, t393);
        const P t547 = shuffled<1, 3>(t388, t393);
        const P t548 = t546 + t547;
        io.out(45, 24, t548);
        const P t549 = t546 - t547;
        io.out(18, 39, t549);
        const P t550 = shuffled<0, 2>(t394, t406);
        const P t551 = shuffled<1, 3>(t394, t406);
        const P t552 = t550 - t551;
        io.out(60, 25, t552);
        const P t553 = t550 + t551;
        io.out(3, 38, t553);
        const P t554 = shuffled<0, 2>(t324, t329);
        const P t555 = shuffled<1, 3>(t324, t329);
        const P t556 = t554 + t555;
        io.out(47, 26, t556);
        const P t557 = t554 - t555;
        io.out(16, 37, t557);
        const P t558 = shuffled<0, 2>(t431, t470);
        const P t559 = shuffled<1, 3>(t431, t470);
        const P t560 = t558 - t559;
        io.out(11, 27, t560);
        const P t561 = t558 + t559;
        io.out(52, 36, t561);
        const P t562 = shuffled<0, 2>(t247, t252);
        const P t563 = shuffled<1, 3>(t247, t252);
        const P t564 = t562 + t563;
        io.out(56, 28, t564);
        const P t565 = t562 - t563;
        io.out(7, 35, t565);
        const P t566 = shuffled<0, 2>(t488, t493);
        const P t567 = shuffled<1, 3>(t488, t493);
        const P t568 = t566 + t567;
        io.out(29, 8, t568);
        const P t569 = t566 - t567;
        io.out(34, 55, t569);
        const P t570 = shuffled<0, 2>(t311, t312);
        const P t571 = shuffled<1, 3>(t311, t312);
        const P t572 = t570 - t571;
        io.out(30, 51, t572);
        const P t573 = t570 + t571;
        io.out(33, 12, t573);
        const P t574 = shuffled<0, 2>(t425, t430);
        const P t575 = shuffled<1, 3>(t425, t430);
        const P t576 = t574 + t575;
        io.out(31, 10, t576);
        const P t577 = t574 - t575;
        io.out(32, 53, t577);
    }
};

}  // namespace zulg
