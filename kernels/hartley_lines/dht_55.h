// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 55.
// Hartley transform of 55 points, form I; up to four lanes to a register.
// 105 sums, 73 differences, 106 products of registers, which do the 959 steps of the graph, those with
// `scale` included; 92 shuffles, 20 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<55> {
    static constexpr int steps = 959;  // with `scale`
    static constexpr double inverseRoot = 0.13483997249264842;  // 1/sqrt(55), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.21991735259851847,  // c[4]: -P[2] of 11
        0.6258085634010283,  // c[5]: Q[2] of 11
        0.35166595918026655,  // c[6]: -Q[3] of 11
        0.5624331543870997,  // c[7]: -P[3] of 11
        0.4015958813743768,  // c[8]: Q[1] of 11
        0.527940098934659,  // c[9]: P[1] of 11
        0.6395756210159789,  // c[10]: -P[4] of 11
        0.1759062960840939,  // c[11]: -Q[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x54_53_52_51 = io.in(54, 53, 52, 51);
        // input stage
        const Q t0 = x1_2_3_4 + x54_53_52_51;
        const Q t1 = x1_2_3_4 - x54_53_52_51;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x50_49_48_47 = io.in(50, 49, 48, 47);
        const Q t2 = x5_6_7_8 + x50_49_48_47;
        const Q t3 = x5_6_7_8 - x50_49_48_47;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x46_45_44_43 = io.in(46, 45, 44, 43);
        const Q t4 = x9_10_11_12 + x46_45_44_43;
        const Q t5 = x9_10_11_12 - x46_45_44_43;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x42_41_40_39 = io.in(42, 41, 40, 39);
        const Q t6 = x13_14_15_16 + x42_41_40_39;
        const Q t7 = x13_14_15_16 - x42_41_40_39;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x38_37_36_35 = io.in(38, 37, 36, 35);
        const Q t8 = x17_18_19_20 + x38_37_36_35;
        const Q t9 = x17_18_19_20 - x38_37_36_35;
        const Q x21_22_23_24 = io.in(21, 22, 23, 24);
        const Q x34_33_32_31 = io.in(34, 33, 32, 31);
        const Q t10 = x21_22_23_24 + x34_33_32_31;
        const Q t11 = x21_22_23_24 - x34_33_32_31;
        const P x25_26 = io.in(25, 26);
        const P x30_29 = io.in(30, 29);
        const P t12 = x25_26 + x30_29;
        const P t13 = x25_26 - x30_29;
        const V x27 = io.in(27);
        const V x28 = io.in(28);
        const V t14 = x27 + x28;
        const V t15 = x27 - x28;
        const Q t16 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t17 = shuffled<0, 4, 2, 6>(t10, t11);
        const Q t18 = shuffled<2, 3, 4, 5>(t16, t17);
        const Q t19 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t20 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t21 = shuffled<0, 1, 4, 5>(t19, t20);
        const Q t22 = flipped<0, 1, 0, 1>(t21);
        // complex block of 5
        const Q t23 = t18 + t22;
        const Q t24 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t25 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t26 = shuffled<0, 1, 6, 7>(t24, t25);
        const Q t27 = flipped<0, 1, 0, 0>(t26);
        const P t28 = joined(t14, t15);
        const P t29 = part<1>(t17);
        const Q t30 = joined(t28, t29);
        const Q t31 = t27 + t30;
        const P t32 = shuffled<1, 3>(t12, t13);
        const P t33 = part<0>(t4);
        const P t34 = part<0>(t5);
        const P t35 = shuffled<0, 2>(t33, t34);
        const Q t36 = joined(t32, t35);
        const Q t37 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t38 = shuffled<1, 5, 3, 7>(t10, t11);
        const Q t39 = shuffled<2, 3, 6, 7>(t37, t38);
        const Q t40 = flipped<0, 0, 0, 1>(t39);
        // complex block of 5
        const Q t41 = t36 + t40;
        const Q t42 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t43 = shuffled<2, 3, 4, 5>(t42, t37);
        const Q t44 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t45 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t46 = shuffled<0, 1, 4, 5>(t44, t45);
        const Q t47 = t43 + t46;
        const P t48 = part<0>(t16);
        const P t49 = part<1>(t24);
        const P t50 = flipped<0, 1>(t49);
        // complex block of 5
        const P t51 = t48 + t50;
        const P t52 = part<1>(t20);
        const P t53 = part<1>(t19);
        const P t54 = flipped<0, 1>(t53);
        const P t55 = t52 + t54;
        // complex block of 5
        const Q t56 = t18 - t22;
        const Q t57 = shuffled<0, 5, 2, 7>(t27, t30);
        const Q t58 = shuffled<0, 5, 2, 7>(t30, t27);
        const Q t59 = t57 - t58;
        const Q t60 = flipped<0, 0, 0, 1>(t31);
        const Q t61 = t23 + t60;
        const Q t62 = c[0] * t23;
        const Q t63 = Q(c[1], c[1], c[1], -c[1]) * t31;
        const Q t64 = t62 - t63;
        const Q t65 = shuffled<0, 1, 4, 5>(t42, t25);
        const Q t66 = c[1] * t23;
        const Q t67 = t65 - t66;
        const Q t68 = flipped<1, 1, 0, 1>(t40);
        const Q t69 = flipped<0, 0, 1, 0>(t36);
        // complex block of 5
        const Q t70 = t68 + t69;
        const Q t71 = shuffled<0, 5, 2, 7>(t43, t46);
        const Q t72 = shuffled<0, 5, 2, 7>(t46, t43);
        const Q t73 = t71 - t72;
        const Q t74 = flipped<0, 1, 0, 1>(t47);
        const Q t75 = t41 + t74;
        const Q t76 = c[0] * t41;
        const Q t77 = Q(-c[1], c[1], -c[1], c[1]) * t47;
        const Q t78 = t76 + t77;
        const Q t79 = shuffled<2, 3, 6, 7>(t45, t44);
        const Q t80 = c[1] * t41;
        const Q t81 = t79 - t80;
        const P t82 = flipped<1, 0>(t48);
        // complex block of 5
        const P t83 = t49 + t82;
        const P t84 = t52 - t54;
        const P t85 = t51 + t55;
        const P t86 = c[0] * t51;
        const P t87 = c[1] * t55;
        const P t88 = t86 - t87;
        const P t89 = shuffled<0, 2>(t12, t13);
        const P t90 = c[1] * t51;
        const P t91 = t89 - t90;
        const P t92 = part<1>(t4);
        const V t93 = part<0>(t92);
        const P t94 = part<0>(t38);
        const V t95 = part<0>(t94);
        // spectrum block of 5
        const V t96 = t93 + t95;
        const V x0 = io.in(0);
        const V t97 = t96 + x0;
        const V t98 = c[0] * t93;
        const V t99 = c[1] * t95;
        const V t100 = t98 - t99;
        const V t101 = t100 + x0;
        const P t102 = part<1>(t5);
        const V t103 = part<0>(t102);
        const V t104 = c[2] * t103;
        const V t105 = part<1>(t94);
        const V t106 = c[3] * t105;
        const V t107 = t104 + t106;
        const V t108 = t101 - t107;
        const V t109 = t101 + t107;
        const V t110 = c[1] * t93;
        const V t111 = x0 - t110;
        const V t112 = c[0] * t95;
        const V t113 = t111 + t112;
        const V t114 = c[3] * t103;
        const V t115 = c[2] * t105;
        const V t116 = t114 - t115;
        const V t117 = t113 - t116;
        const V t118 = t113 + t116;
        // complex block of 5
        const Q t119 = t61 + t65;
        const Q t120 = t64 + t65;
        const Q t121 = c[2] * t56;
        const Q t122 = Q(c[3], -c[3], c[3], c[3]) * t59;
        const Q t123 = t121 - t122;
        const Q t124 = shuffled<1, 0, 3, 2>(t123);
        const Q t125 = flipped<1, 0, 1, 0>(t124);
        const Q t126 = t120 + t125;
        const Q t127 = t120 - t125;
        const Q t128 = Q(c[0], c[0], c[0], -c[0]) * t31;
        const Q t129 = t67 + t128;
        const Q t130 = c[3] * t56;
        const Q t131 = Q(c[2], -c[2], c[2], c[2]) * t59;
        const Q t132 = t130 + t131;
        const Q t133 = shuffled<1, 0, 3, 2>(t132);
        const Q t134 = flipped<1, 0, 1, 0>(t133);
        const Q t135 = t129 + t134;
        const Q t136 = t129 - t134;
        // complex block of 5
        const P t137 = t85 + t89;
        const P t138 = t88 + t89;
        const P t139 = c[2] * t83;
        const P t140 = P(-c[3], c[3]) * t84;
        const P t141 = t139 + t140;
        const P t142 = shuffled<1, 0>(t141);
        const P t143 = t138 + t142;
        const P t144 = t138 - t142;
        const P t145 = c[0] * t55;
        const P t146 = t91 + t145;
        const P t147 = c[2] * t84;
        const P t148 = P(c[3], -c[3]) * t83;
        const P t149 = t147 + t148;
        const P t150 = shuffled<1, 0>(t149);
        const P t151 = flipped<1, 0>(t150);
        const P t152 = t146 + t151;
        const P t153 = t146 - t151;
        const Q t154 = shuffled<0, 4, 2, 6>(t119, t126);
        const Q t155 = shuffled<0, 4, 2, 6>(t135, t136);
        const Q t156 = shuffled<2, 3, 6, 7>(t154, t155);
        const P t157 = shuffled<0, 2>(t137, t143);
        const P t158 = shuffled<0, 2>(t152, t153);
        const Q t159 = joined(t157, t158);
        // real block of 5
        const Q t160 = t156 + t159;
        const Q t161 = t156 - t159;
        const P t162 = shuffled<1, 3>(t137, t143);
        const P t163 = shuffled<1, 3>(t152, t153);
        const Q t164 = joined(t162, t163);
        const Q t165 = shuffled<1, 5, 3, 7>(t119, t126);
        const Q t166 = shuffled<1, 5, 3, 7>(t135, t136);
        const Q t167 = shuffled<2, 3, 6, 7>(t165, t166);
        // real block of 5
        const Q t168 = t164 - t167;
        const Q t169 = t167 + t164;
        const P t170 = part<1>(t127);
        const P t171 = flipped<0, 1>(t170);
        // real block of 5
        const P t172 = t144 + t171;
        const P t173 = flipped<1, 0>(t144);
        const P t174 = t170 + t173;
        // complex block of 5
        const Q t175 = t75 + t79;
        const Q t176 = t78 + t79;
        const Q t177 = c[2] * t70;
        const Q t178 = Q(c[3], c[3], c[3], -c[3]) * t73;
        const Q t179 = t177 - t178;
        const Q t180 = shuffled<1, 0, 3, 2>(t179);
        const Q t181 = flipped<1, 0, 0, 0>(t180);
        const Q t182 = t176 + t181;
        const Q t183 = t176 - t181;
        const Q t184 = Q(c[0], -c[0], c[0], -c[0]) * t47;
        const Q t185 = t81 + t184;
        const Q t186 = c[2] * t73;
        const Q t187 = Q(c[3], c[3], c[3], -c[3]) * t70;
        const Q t188 = t186 + t187;
        const Q t189 = shuffled<1, 0, 3, 2>(t188);
        const Q t190 = flipped<1, 0, 1, 0>(t189);
        const Q t191 = t185 + t190;
        const Q t192 = t185 - t190;
        const Q t193 = shuffled<0, 4, 2, 6>(t175, t182);
        const Q t194 = shuffled<0, 4, 2, 6>(t191, t192);
        const Q t195 = shuffled<0, 1, 4, 5>(t193, t194);
        const Q t196 = shuffled<2, 3, 6, 7>(t193, t194);
        // real block of 5
        const Q t197 = t195 + t196;
        const Q t198 = t195 - t196;
        const Q t199 = shuffled<1, 5, 3, 7>(t175, t182);
        const Q t200 = shuffled<1, 5, 3, 7>(t191, t192);
        const Q t201 = shuffled<0, 1, 4, 5>(t199, t200);
        const Q t202 = shuffled<2, 3, 6, 7>(t199, t200);
        // real block of 5
        const Q t203 = t201 + t202;
        const Q t204 = t201 - t202;
        const P t205 = part<0>(t183);
        const P t206 = part<1>(t183);
        // real block of 5
        const P t207 = t205 + t206;
        const P t208 = t205 - t206;
        // real block of 5
        const Q t209 = t160 + t197;
        const Q t210 = shuffled<0, 1, 4, 5>(t154, t155);
        const Q t211 = t209 + t210;
        const P t212 = joined(t97, t108);
        const P t213 = joined(t117, t118);
        const Q t214 = joined(t212, t213);
        // spectrum block of 11, multiplier 5
        const Q t215 = c[12] * t211;
        const Q t216 = t214 - t215;
        // real block of 5
        const Q t217 = c[0] * t160;
        const Q t218 = c[1] * t197;
        const Q t219 = t217 - t218;
        const Q t220 = t219 + t210;
        const Q t221 = c[3] * t198;
        const Q t222 = c[2] * t161;
        const Q t223 = t221 - t222;
        // real block of 5
        const Q t224 = c[0] * t168;
        const Q t225 = c[1] * t203;
        const Q t226 = t224 - t225;
        const Q t227 = shuffled<0, 1, 4, 5>(t165, t166);
        const Q t228 = t226 + t227;
        const Q t229 = c[2] * t169;
        const Q t230 = c[3] * t204;
        const Q t231 = t229 + t230;
        // spectrum block of 11, multiplier 5
        const Q t232 = c[4] * t220;
        const Q t233 = c[5] * t223;
        const Q t234 = t232 + t233;
        const Q t235 = c[6] * t228;
        const Q t236 = c[7] * t231;
        const Q t237 = t235 + t236;
        // complex block of 2
        const Q t238 = t234 + t237;
        const Q t239 = t237 - t234;
        // spectrum block of 11, multiplier 5
        const Q t240 = c[5] * t220;
        const Q t241 = c[4] * t223;
        const Q t242 = t240 - t241;
        const Q t243 = c[6] * t231;
        const Q t244 = c[7] * t228;
        const Q t245 = t243 - t244;
        // real block of 5
        const Q t246 = c[1] * t160;
        const Q t247 = t210 - t246;
        const Q t248 = c[0] * t197;
        const Q t249 = t247 + t248;
        const Q t250 = c[3] * t161;
        const Q t251 = c[2] * t198;
        const Q t252 = t250 + t251;
        // real block of 5
        const Q t253 = c[1] * t168;
        const Q t254 = t227 - t253;
        const Q t255 = c[0] * t203;
        const Q t256 = t254 + t255;
        const Q t257 = c[3] * t169;
        const Q t258 = c[2] * t204;
        const Q t259 = t257 - t258;
        // spectrum block of 11, multiplier 5
        const Q t260 = c[8] * t256;
        const Q t261 = c[9] * t259;
        const Q t262 = t260 + t261;
        const Q t263 = c[10] * t249;
        const Q t264 = c[11] * t252;
        const Q t265 = t263 + t264;
        // complex block of 2
        const Q t266 = t262 - t265;
        const Q t267 = t265 + t262;
        // spectrum block of 11, multiplier 5
        const Q t268 = c[9] * t256;
        const Q t269 = c[8] * t259;
        const Q t270 = t268 - t269;
        const Q t271 = c[10] * t252;
        const Q t272 = c[11] * t249;
        const Q t273 = t271 - t272;
        // real block of 5
        const Q t274 = t168 + t203;
        const Q t275 = t274 + t227;
        // spectrum block of 11, multiplier 5
        const Q t276 = c[13] * t275;
        // spectrum block of 2
        const Q t277 = t216 - t276;
        // spectrum block of 5, multiplier 2
        const Q t278 = c[0] * t238;
        const Q t279 = t277 - t278;
        // complex block of 2
        const Q t280 = t242 - t245;
        // complex block of 2
        const Q t281 = t273 - t270;
        // spectrum block of 5, multiplier 2
        const Q t282 = t266 - t238;
        const Q t283 = c[1] * t238;
        const Q t284 = c[0] * t266;
        const Q t285 = t283 + t284;
        const Q t286 = t282 + t277;
        io.out(50, 39, 28, 17, t286);
        const Q t287 = c[1] * t266;
        const Q t288 = t279 - t287;
        const Q t289 = c[2] * t280;
        const Q t290 = c[3] * t281;
        const Q t291 = t289 + t290;
        const Q t292 = t288 - t291;
        io.out(30, 19, 8, 52, t292);
        const Q t293 = t288 + t291;
        io.out(10, 54, 43, 32, t293);
        const Q t294 = t285 + t277;
        const Q t295 = c[3] * t280;
        const Q t296 = c[2] * t281;
        const Q t297 = t295 - t296;
        const Q t298 = t294 - t297;
        io.out(40, 29, 18, 7, t298);
        const Q t299 = t294 + t297;
        io.out(35, 24, 13, 2, t299);
        // spectrum block of 2
        const Q t300 = t216 + t276;
        // spectrum block of 5, multiplier 2
        const Q t301 = c[1] * t239;
        const Q t302 = t300 - t301;
        // complex block of 2
        const Q t303 = t242 + t245;
        // complex block of 2
        const Q t304 = t273 + t270;
        // spectrum block of 5, multiplier 2
        const Q t305 = t239 - t267;
        const Q t306 = c[0] * t239;
        const Q t307 = c[1] * t267;
        const Q t308 = t306 + t307;
        const Q t309 = t305 + t300;
        io.out(5, 49, 38, 27, t309);
        const Q t310 = t308 + t300;
        const Q t311 = c[2] * t303;
        const Q t312 = c[3] * t304;
        const Q t313 = t311 + t312;
        const Q t314 = t310 - t313;
        io.out(25, 14, 3, 47, t314);
        const Q t315 = t310 + t313;
        io.out(45, 34, 23, 12, t315);
        const Q t316 = c[0] * t267;
        const Q t317 = t302 - t316;
        const Q t318 = c[3] * t303;
        const Q t319 = c[2] * t304;
        const Q t320 = t318 - t319;
        const Q t321 = t317 - t320;
        io.out(15, 4, 48, 37, t321);
        const Q t322 = t317 + t320;
        io.out(20, 9, 53, 42, t322);
        // spectrum block of 11, multiplier 5
        const Q t323 = t214 + t211;
        io.out(0, 44, 33, 22, t323);
        // real block of 5
        const P t324 = t172 + t207;
        const P t325 = part<0>(t127);
        const P t326 = t324 + t325;
        const V t327 = part<0>(t326);
        // spectrum block of 11, multiplier 5
        const V t328 = c[12] * t327;
        const V t329 = t109 - t328;
        // real block of 5
        const P t330 = c[0] * t172;
        const P t331 = c[1] * t207;
        const P t332 = t330 - t331;
        const P t333 = t332 + t325;
        const P t334 = P(-c[2], c[2]) * t174;
        const P t335 = c[3] * t208;
        const P t336 = t334 + t335;
        const P t337 = c[1] * t172;
        const P t338 = t325 - t337;
        const P t339 = c[0] * t207;
        const P t340 = t338 + t339;
        const P t341 = c[3] * t174;
        const P t342 = P(c[2], -c[2]) * t208;
        const P t343 = t341 + t342;
        const P t344 = shuffled<0, 2>(t336, t333);
        const P t345 = shuffled<1, 3>(t343, t340);
        const Q t346 = joined(t344, t345);
        // spectrum block of 11, multiplier 5
        const Q t347 = Q(c[5], c[5], c[9], c[9]) * t346;
        const Q t348 = shuffled<1, 0, 3, 2>(t346);
        const Q t349 = Q(c[4], -c[4], c[8], -c[8]) * t348;
        const Q t350 = t347 + t349;
        const P t351 = shuffled<1, 3>(t333, t336);
        const P t352 = shuffled<0, 2>(t340, t343);
        const Q t353 = joined(t351, t352);
        const Q t354 = Q(c[6], c[6], c[10], c[10]) * t353;
        const Q t355 = shuffled<1, 0, 3, 2>(t353);
        const Q t356 = Q(c[7], -c[7], c[11], -c[11]) * t355;
        const Q t357 = t354 + t356;
        const Q t358 = flipped<0, 1, 1, 0>(t357);
        const Q t359 = flipped<0, 0, 0, 1>(t350);
        // complex block of 2
        const Q t360 = t358 + t359;
        const Q t361 = flipped<1, 0, 0, 1>(t359);
        const Q t362 = t357 + t361;
        const V t363 = part<1>(t326);
        // spectrum block of 11, multiplier 5
        const V t364 = c[13] * t363;
        // spectrum block of 2
        const V t365 = t329 - t364;
        const P t366 = part<0>(t360);
        const P t367 = part<0>(t362);
        const P t368 = shuffled<0, 2>(t366, t367);
        // spectrum block of 5, multiplier 2
        const P t369 = c[0] * t368;
        const V t370 = part<0>(t369);
        const V t371 = t365 - t370;
        const V t372 = part<1>(t369);
        const P t373 = part<1>(t362);
        const V t374 = part<0>(t373);
        // spectrum block of 5, multiplier 2
        const V t375 = c[1] * t374;
        const V t376 = t372 + t375;
        // spectrum block of 2
        const V t377 = t329 + t364;
        // spectrum block of 5, multiplier 2
        const P t378 = c[1] * t368;
        const V t379 = part<0>(t378);
        const P t380 = part<1>(t360);
        const V t381 = part<0>(t380);
        const V t382 = c[0] * t381;
        const V t383 = t379 + t382;
        const V t384 = part<1>(t378);
        // spectrum block of 5, multiplier 2
        const V t385 = t377 - t384;
        const P t386 = shuffled<0, 3>(t380, t368);
        const P t387 = shuffled<0, 2>(t368, t373);
        // spectrum block of 5, multiplier 2
        const P t388 = t386 - t387;
        const P t389 = shuffled<1, 3>(t366, t367);
        const P t390 = c[2] * t389;
        const P t391 = shuffled<1, 3>(t380, t373);
        const P t392 = c[3] * t391;
        const P t393 = t390 + t392;
        const P t394 = c[3] * t389;
        const P t395 = c[2] * t391;
        const P t396 = t394 - t395;
        const P t397 = joined(t365, t377);
        const P t398 = t388 + t397;
        io.out(6, 16, t398);
        const P t399 = joined(t371, t376);
        const V t400 = -c[1] * t381;
        const P t401 = joined(t400, t377);
        const P t402 = t399 + t401;
        const P t403 = t402 - t393;
        io.out(41, 36, t403);
        const P t404 = t402 + t393;
        io.out(21, 1, t404);
        const P t405 = joined(t383, t385);
        // spectrum block of 5, multiplier 2
        const V t406 = -c[0] * t374;
        const P t407 = joined(t365, t406);
        // spectrum block of 5, multiplier 2
        const P t408 = t405 + t407;
        const P t409 = t408 - t396;
        io.out(51, 26, t409);
        const P t410 = t408 + t396;
        io.out(46, 31, t410);
        // spectrum block of 11, multiplier 5
        const V t411 = t109 + t327;
        io.out(11, t411);
    }
};

}  // namespace zulg
