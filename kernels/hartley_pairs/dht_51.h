// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 51.
// Hartley transform of 51 points, form I; two lanes to a register.
// 141 sums, 120 differences, 102 products of registers, which do the 745 steps of the graph, those with
// `scale` included; 98 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<51> {
    static constexpr int steps = 745;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.3826834323650898,  // c[2]: sin 2 pi 1/16
        0.5,  // c[3]: -cos 2 pi 1/3
        0.8660254037844386,  // c[4]: sin 2 pi 1/3
        0.281986371024157,  // c[5]: -Q[1] of 17
        0.4314031601143256,  // c[6]: P[1] of 17
        0.023972509657154296,  // c[7]: P[2] of 17
        0.51483037864984,  // c[8]: -Q[2] of 17
        0.4407489637509731,  // c[9]: P[3] of 17
        0.26714294104925057,  // c[10]: -Q[3] of 17
        0.40623178445333147,  // c[11]: P[4] of 17
        0.31717619283272513,  // c[12]: -Q[4] of 17
        0.508427430394848,  // c[13]: -P[5] of 17
        0.08441888427414843,  // c[14]: -Q[5] of 17
        0.33572816326715627,  // c[15]: P[6] of 17
        0.39103912897466114,  // c[16]: -Q[6] of 17
        0.4440524091413236,  // c[17]: P[7] of 17
        0.2616150950075063,  // c[18]: -Q[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x50_49 = io.in(50, 49);
        // input stage
        const P t0 = x1_2 + x50_49;
        const P t1 = x1_2 - x50_49;
        const P x3_4 = io.in(3, 4);
        const P x48_47 = io.in(48, 47);
        const P t2 = x3_4 + x48_47;
        const P t3 = x3_4 - x48_47;
        const P x5_6 = io.in(5, 6);
        const P x46_45 = io.in(46, 45);
        const P t4 = x5_6 + x46_45;
        const P t5 = x5_6 - x46_45;
        const P x7_8 = io.in(7, 8);
        const P x44_43 = io.in(44, 43);
        const P t6 = x7_8 + x44_43;
        const P t7 = x7_8 - x44_43;
        const P x9_10 = io.in(9, 10);
        const P x42_41 = io.in(42, 41);
        const P t8 = x9_10 + x42_41;
        const P t9 = x9_10 - x42_41;
        const P x11_12 = io.in(11, 12);
        const P x40_39 = io.in(40, 39);
        const P t10 = x11_12 + x40_39;
        const P t11 = x11_12 - x40_39;
        const P x13_14 = io.in(13, 14);
        const P x38_37 = io.in(38, 37);
        const P t12 = x13_14 + x38_37;
        const P t13 = x13_14 - x38_37;
        const P x15_16 = io.in(15, 16);
        const P x36_35 = io.in(36, 35);
        const P t14 = x15_16 + x36_35;
        const P t15 = x15_16 - x36_35;
        const P x17_18 = io.in(17, 18);
        const P x34_33 = io.in(34, 33);
        const P t16 = x17_18 + x34_33;
        const P t17 = x17_18 - x34_33;
        const P x19_20 = io.in(19, 20);
        const P x32_31 = io.in(32, 31);
        const P t18 = x19_20 + x32_31;
        const P t19 = x19_20 - x32_31;
        const P x21_22 = io.in(21, 22);
        const P x30_29 = io.in(30, 29);
        const P t20 = x21_22 + x30_29;
        const P t21 = x21_22 - x30_29;
        const P x23_24 = io.in(23, 24);
        const P x28_27 = io.in(28, 27);
        const P t22 = x23_24 + x28_27;
        const P t23 = x23_24 - x28_27;
        const V x25 = io.in(25);
        const V x26 = io.in(26);
        const V t24 = x25 + x26;
        const V t25 = x25 - x26;
        const V t26 = part<0>(t16);
        const V x0 = io.in(0);
        // spectrum block of 3, multiplier 2
        const V t27 = t26 + x0;
        const V t28 = c[3] * t26;
        const V t29 = x0 - t28;
        const V t30 = part<0>(t17);
        const V t31 = c[4] * t30;
        const V t32 = t29 - t31;
        const V t33 = t29 + t31;
        const P t34 = shuffled<1, 3>(t18, t19);
        const P t35 = shuffled<1, 3>(t12, t13);
        const P t36 = flipped<0, 1>(t35);
        // complex block of 3, multiplier 2
        const P t37 = t34 + t36;
        const P t38 = t34 - t36;
        const P t39 = shuffled<0, 2>(t2, t3);
        const P t40 = t37 + t39;
        const P t41 = c[3] * t37;
        const P t42 = t39 - t41;
        const P t43 = P(c[4], -c[4]) * t38;
        const P t44 = shuffled<1, 0>(t43);
        const P t45 = t42 + t44;
        const P t46 = t42 - t44;
        const P t47 = shuffled<0, 2>(t22, t23);
        const P t48 = shuffled<0, 2>(t10, t11);
        const P t49 = flipped<0, 1>(t48);
        // complex block of 3, multiplier 2
        const P t50 = t47 + t49;
        const P t51 = t47 - t49;
        const P t52 = shuffled<1, 3>(t4, t5);
        const P t53 = t50 + t52;
        const P t54 = c[3] * t50;
        const P t55 = t52 - t54;
        const P t56 = P(c[4], -c[4]) * t51;
        const P t57 = shuffled<1, 0>(t56);
        const P t58 = t55 + t57;
        const P t59 = t55 - t57;
        const P t60 = joined(t24, t25);
        const P t61 = shuffled<1, 3>(t6, t7);
        // complex block of 3, multiplier 2
        const P t62 = t60 + t61;
        const P t63 = shuffled<0, 3>(t60, t61);
        const P t64 = shuffled<0, 3>(t61, t60);
        const P t65 = t63 - t64;
        const P t66 = shuffled<0, 2>(t8, t9);
        const P t67 = flipped<0, 1>(t62);
        const P t68 = t66 + t67;
        const P t69 = P(-c[3], c[3]) * t62;
        const P t70 = t69 + t66;
        const P t71 = P(c[4], -c[4]) * t65;
        const P t72 = shuffled<1, 0>(t71);
        const P t73 = t70 + t72;
        const P t74 = t70 - t72;
        const P t75 = shuffled<1, 3>(t20, t21);
        const P t76 = shuffled<0, 2>(t4, t5);
        // complex block of 3, multiplier 2
        const P t77 = t75 + t76;
        const P t78 = shuffled<0, 3>(t75, t76);
        const P t79 = shuffled<0, 3>(t76, t75);
        const P t80 = t78 - t79;
        const P t81 = shuffled<1, 3>(t10, t11);
        const P t82 = flipped<0, 1>(t77);
        const P t83 = t81 + t82;
        const P t84 = P(-c[3], c[3]) * t77;
        const P t85 = t84 + t81;
        const P t86 = P(c[4], -c[4]) * t80;
        const P t87 = shuffled<1, 0>(t86);
        const P t88 = t85 + t87;
        const P t89 = t85 - t87;
        const P t90 = shuffled<0, 2>(t18, t19);
        const P t91 = shuffled<1, 3>(t0, t1);
        // complex block of 3, multiplier 2
        const P t92 = t90 + t91;
        const P t93 = shuffled<0, 3>(t90, t91);
        const P t94 = shuffled<0, 3>(t91, t90);
        const P t95 = t93 - t94;
        const P t96 = shuffled<0, 2>(t14, t15);
        const P t97 = flipped<0, 1>(t92);
        const P t98 = t96 + t97;
        const P t99 = P(-c[3], c[3]) * t92;
        const P t100 = t99 + t96;
        const P t101 = P(c[4], -c[4]) * t95;
        const P t102 = shuffled<1, 0>(t101);
        const P t103 = t100 + t102;
        const P t104 = t100 - t102;
        const P t105 = shuffled<1, 2>(t14, t1);
        const P t106 = shuffled<0, 3>(t0, t15);
        const P t107 = flipped<0, 1>(t106);
        // complex block of 3, multiplier 2
        const P t108 = t105 + t107;
        const P t109 = t105 - t107;
        const P t110 = shuffled<1, 3>(t16, t17);
        const P t111 = t108 + t110;
        const P t112 = c[3] * t108;
        const P t113 = t110 - t112;
        const P t114 = c[4] * t109;
        const P t115 = shuffled<1, 0>(t114);
        const P t116 = t113 + t115;
        const P t117 = t113 - t115;
        const P t118 = shuffled<0, 3>(t12, t3);
        const P t119 = shuffled<1, 2>(t2, t13);
        const P t120 = flipped<0, 1>(t119);
        // complex block of 3, multiplier 2
        const P t121 = t118 + t120;
        const P t122 = t118 - t120;
        const P t123 = shuffled<0, 2>(t20, t21);
        const P t124 = t121 + t123;
        const P t125 = c[3] * t121;
        const P t126 = t123 - t125;
        const P t127 = c[4] * t122;
        const P t128 = shuffled<1, 0>(t127);
        const P t129 = t126 + t128;
        const P t130 = t126 - t128;
        const P t131 = shuffled<1, 2>(t8, t7);
        const P t132 = shuffled<0, 3>(t6, t9);
        const P t133 = flipped<0, 1>(t132);
        // complex block of 3, multiplier 2
        const P t134 = t131 + t133;
        const P t135 = t131 - t133;
        const P t136 = shuffled<1, 3>(t22, t23);
        const P t137 = t134 + t136;
        const P t138 = c[3] * t134;
        const P t139 = t136 - t138;
        const P t140 = c[4] * t135;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = t139 + t141;
        const P t143 = t139 - t141;
        const P t144 = shuffled<0, 2>(t40, t46);
        const P t145 = shuffled<0, 2>(t83, t89);
        // real block of 2
        const P t146 = t144 + t145;
        const P t147 = t144 - t145;
        const P t148 = shuffled<0, 2>(t68, t74);
        const P t149 = shuffled<0, 2>(t98, t104);
        // real block of 2
        const P t150 = t148 + t149;
        const P t151 = t148 - t149;
        const P t152 = shuffled<0, 2>(t137, t143);
        const P t153 = shuffled<0, 2>(t53, t59);
        // real block of 2
        const P t154 = t152 + t153;
        const P t155 = t152 - t153;
        const P t156 = shuffled<0, 2>(t124, t130);
        const P t157 = shuffled<0, 2>(t111, t117);
        // real block of 2
        const P t158 = t156 + t157;
        const P t159 = t156 - t157;
        // real block of 2
        const P t160 = t146 + t154;
        const P t161 = t146 - t154;
        // real block of 2
        const P t162 = t150 + t158;
        const P t163 = t150 - t158;
        // real block of 2
        const P t164 = t160 + t162;
        const P t165 = t160 - t162;
        // skew block of 4
        const P t166 = t151 - t159;
        const P t167 = t151 + t159;
        const P t168 = c[0] * t167;
        const P t169 = t168 - t155;
        const P t170 = c[0] * t166;
        const P t171 = t147 + t170;
        const P t172 = t155 + t168;
        const P t173 = t147 - t170;
        const P t174 = shuffled<1, 3>(t68, t74);
        // skew block of 8
        const P t175 = c[1] * t174;
        const P t176 = shuffled<1, 3>(t98, t104);
        const P t177 = c[2] * t176;
        const P t178 = t175 - t177;
        const P t179 = c[1] * t176;
        const P t180 = c[2] * t174;
        const P t181 = t179 + t180;
        const P t182 = shuffled<1, 3>(t53, t59);
        const P t183 = c[0] * t182;
        const P t184 = shuffled<1, 3>(t137, t143);
        const P t185 = c[0] * t184;
        const P t186 = t183 - t185;
        const P t187 = t183 + t185;
        const P t188 = shuffled<1, 3>(t111, t117);
        const P t189 = c[1] * t188;
        const P t190 = shuffled<1, 3>(t124, t130);
        const P t191 = c[2] * t190;
        const P t192 = t189 - t191;
        const P t193 = c[2] * t188;
        const P t194 = c[1] * t190;
        const P t195 = t193 + t194;
        const P t196 = shuffled<1, 3>(t40, t46);
        // complex block of 2
        const P t197 = t196 + t186;
        const P t198 = shuffled<1, 3>(t83, t89);
        const P t199 = t198 + t187;
        const P t200 = t196 - t186;
        const P t201 = t198 - t187;
        // complex block of 2
        const P t202 = t178 + t192;
        const P t203 = t195 - t181;
        const P t204 = t178 - t192;
        const P t205 = t181 + t195;
        // complex block of 2
        const P t206 = t197 + t202;
        const P t207 = t199 + t203;
        const P t208 = t197 - t202;
        const P t209 = t199 - t203;
        // complex block of 2
        const P t210 = t200 - t205;
        const P t211 = t201 - t204;
        const P t212 = t200 + t205;
        const P t213 = t201 + t204;
        const P t214 = joined(t27, t33);
        // spectrum block of 17, multiplier 3
        const P t215 = c[19] * t164;
        const P t216 = t214 - t215;
        const P t217 = c[5] * t206;
        const P t218 = c[6] * t207;
        const P t219 = t217 + t218;
        const P t220 = c[6] * t206;
        const P t221 = c[5] * t207;
        const P t222 = t220 - t221;
        const P t223 = c[7] * t171;
        const P t224 = c[8] * t172;
        const P t225 = t223 - t224;
        const P t226 = c[7] * t172;
        const P t227 = c[8] * t171;
        const P t228 = t226 + t227;
        const P t229 = c[9] * t213;
        const P t230 = c[10] * t212;
        const P t231 = t229 - t230;
        const P t232 = c[10] * t213;
        const P t233 = c[9] * t212;
        const P t234 = t232 + t233;
        const P t235 = c[11] * t161;
        const P t236 = c[12] * t163;
        const P t237 = t235 - t236;
        const P t238 = c[11] * t163;
        const P t239 = c[12] * t161;
        const P t240 = t238 + t239;
        const P t241 = c[13] * t211;
        const P t242 = c[14] * t210;
        const P t243 = t241 - t242;
        const P t244 = c[14] * t211;
        const P t245 = c[13] * t210;
        const P t246 = t244 + t245;
        const P t247 = c[15] * t173;
        const P t248 = c[16] * t169;
        const P t249 = t247 - t248;
        const P t250 = c[15] * t169;
        const P t251 = c[16] * t173;
        const P t252 = t250 + t251;
        const P t253 = c[17] * t209;
        const P t254 = c[18] * t208;
        const P t255 = t253 - t254;
        const P t256 = c[18] * t209;
        const P t257 = c[17] * t208;
        const P t258 = t256 + t257;
        const P t259 = c[20] * t165;
        // spectrum block of 2
        const P t260 = t216 - t259;
        const P t261 = t216 + t259;
        // spectrum block of 2
        const P t262 = t260 + t237;
        const P t263 = t260 - t237;
        // spectrum block of 2
        const P t264 = t261 + t240;
        const P t265 = t261 - t240;
        // complex block of 2
        const P t266 = t222 - t258;
        const P t267 = t255 - t219;
        const P t268 = t222 + t258;
        const P t269 = t219 + t255;
        // complex block of 2
        const P t270 = t246 + t234;
        const P t271 = t243 + t231;
        const P t272 = t234 - t246;
        const P t273 = t243 - t231;
        // complex block of 2
        const P t274 = t266 - t270;
        const P t275 = t267 + t271;
        const P t276 = t266 + t270;
        const P t277 = t267 - t271;
        // complex block of 2
        const P t278 = t268 + t273;
        const P t279 = t269 + t272;
        const P t280 = t268 - t273;
        const P t281 = t272 - t269;
        // spectrum block of 16
        const P t282 = c[1] * t279;
        const P t283 = c[2] * t278;
        const P t284 = t282 + t283;
        const P t285 = c[1] * t278;
        const P t286 = c[2] * t279;
        const P t287 = t285 - t286;
        const P t288 = t277 + t276;
        const P t289 = t276 - t277;
        const P t290 = c[2] * t281;
        const P t291 = c[1] * t280;
        const P t292 = t290 - t291;
        const P t293 = c[2] * t280;
        const P t294 = c[1] * t281;
        const P t295 = t293 + t294;
        // mirrored skew block of 4
        const P t296 = t225 - t249;
        const P t297 = t228 + t252;
        const P t298 = t225 + t249;
        const P t299 = c[0] * t296;
        const P t300 = c[0] * t297;
        const P t301 = t299 + t300;
        const P t302 = t252 - t228;
        const P t303 = t299 - t300;
        // spectrum block of 2
        const P t304 = t262 + t298;
        const P t305 = t262 - t298;
        // spectrum block of 2
        const P t306 = t304 + t275;
        io.out(48, 31, t306);
        const P t307 = t304 - t275;
        io.out(3, 37, t307);
        // spectrum block of 2
        const P t308 = t305 - t274;
        io.out(39, 22, t308);
        const P t309 = t305 + t274;
        io.out(12, 46, t309);
        // spectrum block of 2
        const P t310 = t264 + t301;
        const P t311 = t264 - t301;
        // spectrum block of 2
        const P t312 = t310 - t284;
        io.out(33, 16, t312);
        const P t313 = t310 + t284;
        io.out(18, 1, t313);
        // spectrum block of 2
        const P t314 = t311 - t287;
        io.out(30, 13, t314);
        const P t315 = t311 + t287;
        io.out(21, 4, t315);
        // spectrum block of 2
        const P t316 = t263 - t302;
        const P t317 = t263 + t302;
        // spectrum block of 16
        const P t318 = c[0] * t289;
        // spectrum block of 2
        const P t319 = t316 - t318;
        io.out(45, 28, t319);
        const P t320 = t316 + t318;
        io.out(6, 40, t320);
        // spectrum block of 16
        const P t321 = c[0] * t288;
        // spectrum block of 2
        const P t322 = t317 - t321;
        io.out(27, 10, t322);
        const P t323 = t317 + t321;
        io.out(24, 7, t323);
        // spectrum block of 2
        const P t324 = t265 - t303;
        const P t325 = t265 + t303;
        // spectrum block of 2
        const P t326 = t324 + t292;
        io.out(15, 49, t326);
        const P t327 = t324 - t292;
        io.out(36, 19, t327);
        // spectrum block of 2
        const P t328 = t325 - t295;
        io.out(9, 43, t328);
        const P t329 = t325 + t295;
        io.out(42, 25, t329);
        // spectrum block of 17, multiplier 3
        const P t330 = t214 + t164;
        io.out(0, 34, t330);
        const P t331 = shuffled<0, 2>(t45, t73);
        const P t332 = shuffled<0, 2>(t88, t103);
        // real block of 2
        const P t333 = t331 + t332;
        const P t334 = t331 - t332;
        const P t335 = shuffled<0, 2>(t142, t129);
        const P t336 = shuffled<0, 2>(t58, t116);
        // real block of 2
        const P t337 = t335 + t336;
        const P t338 = t335 - t336;
        // real block of 2
        const P t339 = t333 + t337;
        const P t340 = t333 - t337;
        const V t341 = part<0>(t339);
        const V t342 = part<1>(t339);
        // real block of 2
        const V t343 = t341 + t342;
        const V t344 = t341 - t342;
        const V t345 = part<1>(t334);
        const V t346 = part<1>(t338);
        // skew block of 4
        const V t347 = t345 - t346;
        const V t348 = t345 + t346;
        const V t349 = c[0] * t348;
        const V t350 = part<0>(t338);
        const V t351 = t349 - t350;
        const V t352 = part<0>(t334);
        const V t353 = c[0] * t347;
        const V t354 = t352 + t353;
        const V t355 = t350 + t349;
        const V t356 = t352 - t353;
        const P t357 = shuffled<1, 3>(t73, t103);
        // skew block of 8
        const P t358 = c[1] * t357;
        const P t359 = shuffled<1, 0>(t357);
        const P t360 = P(-c[2], c[2]) * t359;
        const P t361 = t358 + t360;
        const P t362 = shuffled<1, 3>(t142, t58);
        const P t363 = P(-c[0], c[0]) * t362;
        const P t364 = shuffled<1, 0>(t363);
        const P t365 = flipped<0, 1>(t364);
        const P t366 = t363 + t365;
        const P t367 = shuffled<1, 3>(t129, t116);
        const P t368 = P(-c[2], c[2]) * t367;
        const P t369 = shuffled<1, 0>(t367);
        const P t370 = c[1] * t369;
        const P t371 = t368 + t370;
        const P t372 = shuffled<1, 3>(t45, t88);
        // complex block of 2
        const P t373 = t372 + t366;
        const P t374 = t372 - t366;
        const P t375 = flipped<0, 1>(t361);
        // complex block of 2
        const P t376 = t371 + t375;
        const P t377 = flipped<1, 0>(t371);
        const P t378 = t361 + t377;
        // complex block of 2
        const P t379 = t373 + t376;
        const P t380 = t373 - t376;
        const P t381 = shuffled<1, 0>(t378);
        // complex block of 2
        const P t382 = t374 - t381;
        const P t383 = t374 + t381;
        // spectrum block of 17, multiplier 3
        const V t384 = c[19] * t343;
        const V t385 = t32 - t384;
        const P t386 = shuffled<1, 0>(t379);
        const P t387 = c[6] * t386;
        const P t388 = P(c[5], -c[5]) * t379;
        const P t389 = t387 + t388;
        const P t390 = joined(t354, t355);
        const P t391 = c[7] * t390;
        const P t392 = shuffled<1, 0>(t390);
        const P t393 = P(-c[8], c[8]) * t392;
        const P t394 = t391 + t393;
        const P t395 = P(-c[10], c[10]) * t383;
        const P t396 = shuffled<1, 0>(t383);
        const P t397 = c[9] * t396;
        const P t398 = t395 + t397;
        const P t399 = c[11] * t340;
        const P t400 = shuffled<1, 0>(t340);
        const P t401 = P(-c[12], c[12]) * t400;
        const P t402 = t399 + t401;
        const P t403 = P(-c[14], c[14]) * t382;
        const P t404 = shuffled<1, 0>(t382);
        const P t405 = c[13] * t404;
        const P t406 = t403 + t405;
        const P t407 = joined(t356, t351);
        const P t408 = c[15] * t407;
        const P t409 = shuffled<1, 0>(t407);
        const P t410 = P(-c[16], c[16]) * t409;
        const P t411 = t408 + t410;
        const P t412 = P(-c[18], c[18]) * t380;
        const P t413 = shuffled<1, 0>(t380);
        const P t414 = c[17] * t413;
        const P t415 = t412 + t414;
        const V t416 = c[20] * t344;
        // spectrum block of 2
        const V t417 = t385 - t416;
        const V t418 = t385 + t416;
        const P t419 = joined(t417, t418);
        // spectrum block of 2
        const P t420 = t419 + t402;
        const P t421 = t419 - t402;
        const P t422 = shuffled<0, 3>(t415, t389);
        const P t423 = shuffled<0, 3>(t389, t415);
        // complex block of 2
        const P t424 = t422 - t423;
        const P t425 = t389 + t415;
        // complex block of 2
        const P t426 = t406 + t398;
        const P t427 = shuffled<0, 3>(t406, t398);
        const P t428 = shuffled<0, 3>(t398, t406);
        const P t429 = t427 - t428;
        const P t430 = flipped<0, 1>(t426);
        // complex block of 2
        const P t431 = t424 + t430;
        const P t432 = t424 - t430;
        const P t433 = shuffled<1, 0>(t429);
        // complex block of 2
        const P t434 = t425 + t433;
        const P t435 = shuffled<0, 3>(t433, t425);
        const P t436 = shuffled<0, 3>(t425, t433);
        const P t437 = t435 - t436;
        // spectrum block of 16
        const P t438 = c[1] * t434;
        const P t439 = shuffled<1, 0>(t434);
        const P t440 = P(c[2], -c[2]) * t439;
        const P t441 = t438 + t440;
        const P t442 = shuffled<1, 0>(t432);
        const P t443 = flipped<0, 1>(t442);
        const P t444 = t432 + t443;
        const P t445 = c[2] * t437;
        const P t446 = shuffled<1, 0>(t437);
        const P t447 = P(-c[1], c[1]) * t446;
        const P t448 = t445 + t447;
        const V t449 = part<0>(t394);
        const V t450 = part<0>(t411);
        // mirrored skew block of 4
        const V t451 = t449 - t450;
        const V t452 = part<1>(t394);
        const V t453 = part<1>(t411);
        const V t454 = t452 + t453;
        const V t455 = t449 + t450;
        const V t456 = c[0] * t451;
        const V t457 = c[0] * t454;
        const V t458 = t456 + t457;
        const V t459 = t453 - t452;
        const V t460 = t456 - t457;
        const P t461 = joined(t455, t458);
        // spectrum block of 2
        const P t462 = t420 + t461;
        const P t463 = t420 - t461;
        const P t464 = shuffled<0, 2>(t431, t441);
        const P t465 = flipped<0, 1>(t464);
        // spectrum block of 2
        const P t466 = t462 + t465;
        io.out(14, 50, t466);
        const P t467 = t462 - t465;
        io.out(20, 35, t467);
        const P t468 = shuffled<1, 3>(t431, t441);
        // spectrum block of 2
        const P t469 = t463 - t468;
        io.out(5, 47, t469);
        const P t470 = t463 + t468;
        io.out(29, 38, t470);
        const P t471 = joined(t459, t460);
        // spectrum block of 2
        const P t472 = t421 - t471;
        const P t473 = t421 + t471;
        // spectrum block of 16
        const P t474 = P(c[0], -c[0]) * t444;
        const P t475 = shuffled<1, 2>(t474, t448);
        // spectrum block of 2
        const P t476 = t472 + t475;
        io.out(11, 32, t476);
        const P t477 = t472 - t475;
        io.out(23, 2, t477);
        const P t478 = shuffled<0, 3>(t474, t448);
        // spectrum block of 2
        const P t479 = t473 - t478;
        io.out(44, 26, t479);
        const P t480 = t473 + t478;
        io.out(41, 8, t480);
        // spectrum block of 17, multiplier 3
        const V t481 = t32 + t343;
        io.out(17, t481);
    }
};

}  // namespace zulg
