// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 51.
// Inverse DFT to 51 real points, prime-factor 3, 17; two lanes to a register.
// 131 sums, 104 differences, 127 products of registers, which do the 744 steps of the graph, those with
// `scale` included; 75 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<51> {
    static constexpr int steps = 744;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.7071067811865476,  // c[1]: cos 2 pi 1/8
        0.9238795325112867,  // c[2]: cos 2 pi 1/16
        0.3826834323650898,  // c[3]: sin 2 pi 1/16
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.281986371024157,  // c[6]: -Q[1] of 17
        0.4314031601143256,  // c[7]: P[1] of 17
        0.023972509657154296,  // c[8]: P[2] of 17
        0.51483037864984,  // c[9]: -Q[2] of 17
        0.4407489637509731,  // c[10]: P[3] of 17
        0.26714294104925057,  // c[11]: -Q[3] of 17
        0.40623178445333147,  // c[12]: P[4] of 17
        0.31717619283272513,  // c[13]: -Q[4] of 17
        0.508427430394848,  // c[14]: -P[5] of 17
        0.08441888427414843,  // c[15]: -Q[5] of 17
        0.33572816326715627,  // c[16]: P[6] of 17
        0.39103912897466114,  // c[17]: -Q[6] of 17
        0.4440524091413236,  // c[18]: P[7] of 17
        0.2616150950075063,  // c[19]: -Q[7] of 17
        0.0625,  // c[20]: 1/16
        0.2576941016011038,  // c[21]: -beta of 17
        1.7320508075688772,  // c[22]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x17 = io.pair(17);
        const V t0 = part<0>(x17);
        // doubled bins
        const V t1 = c[0] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3, multiplier 2
        const V t2 = t1 + x0r;
        const V t3 = c[4] * t1;
        const V t4 = x0r - t3;
        const V t5 = part<1>(x17);
        const V t6 = c[22] * t5;
        const V t7 = t4 - t6;
        const V t8 = t4 + t6;
        const P x20 = io.pair(20);
        // doubled bins
        const P t9 = c[0] * x20;
        const P x14 = io.pair(14);
        const P t10 = P(c[0], -c[0]) * x14;
        // complex block of 3, multiplier 2
        const P t11 = t9 + t10;
        const P t12 = t9 - t10;
        const P x3 = io.pair(3);
        // doubled bins
        const P t13 = c[0] * x3;
        // complex block of 3, multiplier 2
        const P t14 = t11 + t13;
        const P t15 = c[4] * t11;
        const P t16 = t13 - t15;
        const P t17 = P(c[5], -c[5]) * t12;
        const P t18 = shuffled<1, 0>(t17);
        const P t19 = t16 + t18;
        const P t20 = t16 - t18;
        const P x23 = io.pair(23);
        // doubled bins
        const P t21 = c[0] * x23;
        const P x11 = io.pair(11);
        const P t22 = P(c[0], -c[0]) * x11;
        // complex block of 3, multiplier 2
        const P t23 = t21 + t22;
        const P t24 = t21 - t22;
        const P x6 = io.pair(6);
        // doubled bins
        const P t25 = c[0] * x6;
        // complex block of 3, multiplier 2
        const P t26 = t23 + t25;
        const P t27 = c[4] * t23;
        const P t28 = t25 - t27;
        const P t29 = P(c[5], -c[5]) * t24;
        const P t30 = shuffled<1, 0>(t29);
        const P t31 = t28 + t30;
        const P t32 = t28 - t30;
        const P x25 = io.pair(25);
        // doubled bins
        const P t33 = c[0] * x25;
        const P x8 = io.pair(8);
        const P t34 = c[0] * x8;
        // complex block of 3, multiplier 2
        const P t35 = t33 + t34;
        const P t36 = shuffled<0, 3>(t33, t34);
        const P t37 = shuffled<0, 3>(t34, t33);
        const P t38 = t36 - t37;
        const P x9 = io.pair(9);
        // doubled bins
        const P t39 = c[0] * x9;
        const P t40 = flipped<0, 1>(t35);
        // complex block of 3, multiplier 2
        const P t41 = t39 + t40;
        const P t42 = P(-c[4], c[4]) * t35;
        const P t43 = t42 + t39;
        const P t44 = P(c[5], -c[5]) * t38;
        const P t45 = shuffled<1, 0>(t44);
        const P t46 = t43 + t45;
        const P t47 = t43 - t45;
        const P x22 = io.pair(22);
        // doubled bins
        const P t48 = c[0] * x22;
        const P x5 = io.pair(5);
        const P t49 = c[0] * x5;
        // complex block of 3, multiplier 2
        const P t50 = t48 + t49;
        const P t51 = shuffled<0, 3>(t48, t49);
        const P t52 = shuffled<0, 3>(t49, t48);
        const P t53 = t51 - t52;
        const P x12 = io.pair(12);
        // doubled bins
        const P t54 = c[0] * x12;
        const P t55 = flipped<0, 1>(t50);
        // complex block of 3, multiplier 2
        const P t56 = t54 + t55;
        const P t57 = P(-c[4], c[4]) * t50;
        const P t58 = t57 + t54;
        const P t59 = P(c[5], -c[5]) * t53;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        const P x19 = io.pair(19);
        // doubled bins
        const P t63 = c[0] * x19;
        const P x2 = io.pair(2);
        const P t64 = c[0] * x2;
        // complex block of 3, multiplier 2
        const P t65 = t63 + t64;
        const P t66 = shuffled<0, 3>(t63, t64);
        const P t67 = shuffled<0, 3>(t64, t63);
        const P t68 = t66 - t67;
        const P x15 = io.pair(15);
        // doubled bins
        const P t69 = c[0] * x15;
        const P t70 = flipped<0, 1>(t65);
        // complex block of 3, multiplier 2
        const P t71 = t69 + t70;
        const P t72 = P(-c[4], c[4]) * t65;
        const P t73 = t72 + t69;
        const P t74 = P(c[5], -c[5]) * t68;
        const P t75 = shuffled<1, 0>(t74);
        const P t76 = t73 + t75;
        const P t77 = t73 - t75;
        const P x1 = io.pair(1);
        // doubled bins
        const P t78 = c[0] * x1;
        const P x16 = io.pair(16);
        const P t79 = P(c[0], -c[0]) * x16;
        // complex block of 3, multiplier 2
        const P t80 = t78 + t79;
        const P t81 = flipped<0, 1>(t79);
        const P t82 = flipped<1, 0>(t78);
        const P t83 = t81 + t82;
        const P x18 = io.pair(18);
        // doubled bins
        const P t84 = c[0] * x18;
        // complex block of 3, multiplier 2
        const P t85 = t80 + t84;
        const P t86 = c[4] * t80;
        const P t87 = t84 - t86;
        const P t88 = c[5] * t83;
        const P t89 = shuffled<1, 0>(t88);
        const P t90 = t87 + t89;
        const P t91 = t87 - t89;
        const P x4 = io.pair(4);
        // doubled bins
        const P t92 = c[0] * x4;
        const P x13 = io.pair(13);
        const P t93 = P(c[0], -c[0]) * x13;
        // complex block of 3, multiplier 2
        const P t94 = t92 + t93;
        const P t95 = flipped<0, 1>(t93);
        const P t96 = flipped<1, 0>(t92);
        const P t97 = t95 + t96;
        const P x21 = io.pair(21);
        // doubled bins
        const P t98 = c[0] * x21;
        // complex block of 3, multiplier 2
        const P t99 = t94 + t98;
        const P t100 = c[4] * t94;
        const P t101 = t98 - t100;
        const P t102 = c[5] * t97;
        const P t103 = shuffled<1, 0>(t102);
        const P t104 = t101 + t103;
        const P t105 = t101 - t103;
        const P x7 = io.pair(7);
        // doubled bins
        const P t106 = c[0] * x7;
        const P x10 = io.pair(10);
        const P t107 = P(c[0], -c[0]) * x10;
        // complex block of 3, multiplier 2
        const P t108 = t106 + t107;
        const P t109 = flipped<0, 1>(t107);
        const P t110 = flipped<1, 0>(t106);
        const P t111 = t109 + t110;
        const P x24 = io.pair(24);
        // doubled bins
        const P t112 = c[0] * x24;
        // complex block of 3, multiplier 2
        const P t113 = t108 + t112;
        const P t114 = c[4] * t108;
        const P t115 = t112 - t114;
        const P t116 = c[5] * t111;
        const P t117 = shuffled<1, 0>(t116);
        const P t118 = t115 + t117;
        const P t119 = t115 - t117;
        const P t120 = shuffled<0, 2>(t14, t20);
        const P t121 = shuffled<0, 2>(t56, t62);
        // real block of 2
        const P t122 = t120 + t121;
        const P t123 = t120 - t121;
        const P t124 = shuffled<0, 2>(t41, t47);
        const P t125 = shuffled<0, 2>(t71, t77);
        // real block of 2
        const P t126 = t124 + t125;
        const P t127 = t124 - t125;
        const P t128 = shuffled<0, 2>(t113, t119);
        const P t129 = shuffled<0, 2>(t26, t32);
        // real block of 2
        const P t130 = t128 + t129;
        const P t131 = t128 - t129;
        const P t132 = shuffled<0, 2>(t99, t105);
        const P t133 = shuffled<0, 2>(t85, t91);
        // real block of 2
        const P t134 = t132 + t133;
        const P t135 = t132 - t133;
        // real block of 2
        const P t136 = t122 + t130;
        const P t137 = t122 - t130;
        // real block of 2
        const P t138 = t126 + t134;
        const P t139 = t126 - t134;
        // real block of 2
        const P t140 = t136 + t138;
        const P t141 = t136 - t138;
        // skew block of 4
        const P t142 = t127 - t135;
        const P t143 = t127 + t135;
        const P t144 = c[1] * t143;
        const P t145 = t144 - t131;
        const P t146 = c[1] * t142;
        const P t147 = t123 + t146;
        const P t148 = t131 + t144;
        const P t149 = t123 - t146;
        const P t150 = shuffled<1, 3>(t41, t47);
        // skew block of 8
        const P t151 = c[2] * t150;
        const P t152 = shuffled<1, 3>(t71, t77);
        const P t153 = c[3] * t152;
        const P t154 = t151 - t153;
        const P t155 = c[2] * t152;
        const P t156 = c[3] * t150;
        const P t157 = t155 + t156;
        const P t158 = shuffled<1, 3>(t26, t32);
        const P t159 = c[1] * t158;
        const P t160 = shuffled<1, 3>(t113, t119);
        const P t161 = c[1] * t160;
        const P t162 = t159 - t161;
        const P t163 = t159 + t161;
        const P t164 = shuffled<1, 3>(t85, t91);
        const P t165 = c[2] * t164;
        const P t166 = shuffled<1, 3>(t99, t105);
        const P t167 = c[3] * t166;
        const P t168 = t165 - t167;
        const P t169 = c[3] * t164;
        const P t170 = c[2] * t166;
        const P t171 = t169 + t170;
        const P t172 = shuffled<1, 3>(t14, t20);
        // complex block of 2
        const P t173 = t172 + t162;
        const P t174 = shuffled<1, 3>(t56, t62);
        const P t175 = t174 + t163;
        const P t176 = t172 - t162;
        const P t177 = t174 - t163;
        // complex block of 2
        const P t178 = t154 + t168;
        const P t179 = t171 - t157;
        const P t180 = t154 - t168;
        const P t181 = t157 + t171;
        // complex block of 2
        const P t182 = t173 + t178;
        const P t183 = t175 + t179;
        const P t184 = t173 - t178;
        const P t185 = t175 - t179;
        // complex block of 2
        const P t186 = t176 - t181;
        const P t187 = t177 - t180;
        const P t188 = t176 + t181;
        const P t189 = t177 + t180;
        const P t190 = joined(t2, t8);
        // spectrum block of 17, multiplier 3
        const P t191 = c[20] * t140;
        const P t192 = t190 - t191;
        const P t193 = c[6] * t182;
        const P t194 = c[7] * t183;
        const P t195 = t193 + t194;
        const P t196 = c[7] * t182;
        const P t197 = c[6] * t183;
        const P t198 = t196 - t197;
        const P t199 = c[8] * t147;
        const P t200 = c[9] * t148;
        const P t201 = t199 - t200;
        const P t202 = c[8] * t148;
        const P t203 = c[9] * t147;
        const P t204 = t202 + t203;
        const P t205 = c[10] * t189;
        const P t206 = c[11] * t188;
        const P t207 = t205 - t206;
        const P t208 = c[11] * t189;
        const P t209 = c[10] * t188;
        const P t210 = t208 + t209;
        const P t211 = c[12] * t137;
        const P t212 = c[13] * t139;
        const P t213 = t211 - t212;
        const P t214 = c[12] * t139;
        const P t215 = c[13] * t137;
        const P t216 = t214 + t215;
        const P t217 = c[14] * t187;
        const P t218 = c[15] * t186;
        const P t219 = t217 - t218;
        const P t220 = c[15] * t187;
        const P t221 = c[14] * t186;
        const P t222 = t220 + t221;
        const P t223 = c[16] * t149;
        const P t224 = c[17] * t145;
        const P t225 = t223 - t224;
        const P t226 = c[16] * t145;
        const P t227 = c[17] * t149;
        const P t228 = t226 + t227;
        const P t229 = c[18] * t185;
        const P t230 = c[19] * t184;
        const P t231 = t229 - t230;
        const P t232 = c[19] * t185;
        const P t233 = c[18] * t184;
        const P t234 = t232 + t233;
        const P t235 = c[21] * t141;
        // spectrum block of 2
        const P t236 = t192 - t235;
        const P t237 = t192 + t235;
        // spectrum block of 2
        const P t238 = t236 + t213;
        const P t239 = t236 - t213;
        // spectrum block of 2
        const P t240 = t237 + t216;
        const P t241 = t237 - t216;
        // complex block of 2
        const P t242 = t198 - t234;
        const P t243 = t231 - t195;
        const P t244 = t198 + t234;
        const P t245 = t195 + t231;
        // complex block of 2
        const P t246 = t222 + t210;
        const P t247 = t219 + t207;
        const P t248 = t210 - t222;
        const P t249 = t219 - t207;
        // complex block of 2
        const P t250 = t242 - t246;
        const P t251 = t243 + t247;
        const P t252 = t242 + t246;
        const P t253 = t243 - t247;
        // complex block of 2
        const P t254 = t244 + t249;
        const P t255 = t245 + t248;
        const P t256 = t244 - t249;
        const P t257 = t248 - t245;
        // spectrum block of 16
        const P t258 = c[2] * t255;
        const P t259 = c[3] * t254;
        const P t260 = t258 + t259;
        const P t261 = c[2] * t254;
        const P t262 = c[3] * t255;
        const P t263 = t261 - t262;
        const P t264 = t253 + t252;
        const P t265 = t252 - t253;
        const P t266 = c[3] * t257;
        const P t267 = c[2] * t256;
        const P t268 = t266 - t267;
        const P t269 = c[3] * t256;
        const P t270 = c[2] * t257;
        const P t271 = t269 + t270;
        // mirrored skew block of 4
        const P t272 = t201 - t225;
        const P t273 = t204 + t228;
        const P t274 = t201 + t225;
        const P t275 = c[1] * t272;
        const P t276 = c[1] * t273;
        const P t277 = t275 + t276;
        const P t278 = t228 - t204;
        const P t279 = t275 - t276;
        // spectrum block of 2
        const P t280 = t238 + t274;
        const P t281 = t238 - t274;
        // spectrum block of 2
        const P t282 = t280 + t251;
        io.out(3, 20, t282);
        const P t283 = t280 - t251;
        io.out(48, 14, t283);
        // spectrum block of 2
        const P t284 = t281 - t250;
        io.out(12, 29, t284);
        const P t285 = t281 + t250;
        io.out(39, 5, t285);
        // spectrum block of 2
        const P t286 = t240 + t277;
        const P t287 = t240 - t277;
        // spectrum block of 2
        const P t288 = t286 - t260;
        io.out(18, 35, t288);
        const P t289 = t286 + t260;
        io.out(33, 50, t289);
        // spectrum block of 2
        const P t290 = t287 - t263;
        io.out(21, 38, t290);
        const P t291 = t287 + t263;
        io.out(30, 47, t291);
        // spectrum block of 2
        const P t292 = t239 - t278;
        const P t293 = t239 + t278;
        // spectrum block of 16
        const P t294 = c[1] * t265;
        // spectrum block of 2
        const P t295 = t292 - t294;
        io.out(6, 23, t295);
        const P t296 = t292 + t294;
        io.out(45, 11, t296);
        // spectrum block of 16
        const P t297 = c[1] * t264;
        // spectrum block of 2
        const P t298 = t293 - t297;
        io.out(24, 41, t298);
        const P t299 = t293 + t297;
        io.out(27, 44, t299);
        // spectrum block of 2
        const P t300 = t241 - t279;
        const P t301 = t241 + t279;
        // spectrum block of 2
        const P t302 = t300 + t268;
        io.out(36, 2, t302);
        const P t303 = t300 - t268;
        io.out(15, 32, t303);
        // spectrum block of 2
        const P t304 = t301 - t271;
        io.out(42, 8, t304);
        const P t305 = t301 + t271;
        io.out(9, 26, t305);
        // spectrum block of 17, multiplier 3
        const P t306 = t190 + t140;
        io.out(0, 17, t306);
        const P t307 = shuffled<0, 2>(t19, t46);
        const P t308 = shuffled<0, 2>(t61, t76);
        // real block of 2
        const P t309 = t307 + t308;
        const P t310 = t307 - t308;
        const P t311 = shuffled<0, 2>(t118, t104);
        const P t312 = shuffled<0, 2>(t31, t90);
        // real block of 2
        const P t313 = t311 + t312;
        const P t314 = t311 - t312;
        // real block of 2
        const P t315 = t309 + t313;
        const P t316 = t309 - t313;
        const V t317 = part<0>(t315);
        const V t318 = part<1>(t315);
        // real block of 2
        const V t319 = t317 + t318;
        const V t320 = t317 - t318;
        const V t321 = part<1>(t310);
        const V t322 = part<1>(t314);
        // skew block of 4
        const V t323 = t321 - t322;
        const V t324 = t321 + t322;
        const V t325 = c[1] * t324;
        const V t326 = part<0>(t314);
        const V t327 = t325 - t326;
        const V t328 = part<0>(t310);
        const V t329 = c[1] * t323;
        const V t330 = t328 + t329;
        const V t331 = t326 + t325;
        const V t332 = t328 - t329;
        const P t333 = shuffled<1, 3>(t46, t76);
        // skew block of 8
        const P t334 = c[2] * t333;
        const P t335 = shuffled<1, 0>(t333);
        const P t336 = P(-c[3], c[3]) * t335;
        const P t337 = t334 + t336;
        const P t338 = shuffled<1, 3>(t118, t31);
        const P t339 = P(-c[1], c[1]) * t338;
        const P t340 = shuffled<1, 0>(t339);
        const P t341 = flipped<0, 1>(t340);
        const P t342 = t339 + t341;
        const P t343 = shuffled<1, 3>(t104, t90);
        const P t344 = P(-c[3], c[3]) * t343;
        const P t345 = shuffled<1, 0>(t343);
        const P t346 = c[2] * t345;
        const P t347 = t344 + t346;
        const P t348 = shuffled<1, 3>(t19, t61);
        // complex block of 2
        const P t349 = t348 + t342;
        const P t350 = t348 - t342;
        const P t351 = flipped<0, 1>(t337);
        // complex block of 2
        const P t352 = t347 + t351;
        const P t353 = flipped<1, 0>(t347);
        const P t354 = t337 + t353;
        // complex block of 2
        const P t355 = t349 + t352;
        const P t356 = t349 - t352;
        const P t357 = shuffled<1, 0>(t354);
        // complex block of 2
        const P t358 = t350 - t357;
        const P t359 = t350 + t357;
        // spectrum block of 17, multiplier 3
        const V t360 = c[20] * t319;
        const V t361 = t7 - t360;
        const P t362 = shuffled<1, 0>(t355);
        const P t363 = c[7] * t362;
        const P t364 = P(c[6], -c[6]) * t355;
        const P t365 = t363 + t364;
        const P t366 = joined(t330, t331);
        const P t367 = c[8] * t366;
        const P t368 = shuffled<1, 0>(t366);
        const P t369 = P(-c[9], c[9]) * t368;
        const P t370 = t367 + t369;
        const P t371 = P(-c[11], c[11]) * t359;
        const P t372 = shuffled<1, 0>(t359);
        const P t373 = c[10] * t372;
        const P t374 = t371 + t373;
        const P t375 = c[12] * t316;
        const P t376 = shuffled<1, 0>(t316);
        const P t377 = P(-c[13], c[13]) * t376;
        const P t378 = t375 + t377;
        const P t379 = P(-c[15], c[15]) * t358;
        const P t380 = shuffled<1, 0>(t358);
        const P t381 = c[14] * t380;
        const P t382 = t379 + t381;
        const P t383 = joined(t332, t327);
        const P t384 = c[16] * t383;
        const P t385 = shuffled<1, 0>(t383);
        const P t386 = P(-c[17], c[17]) * t385;
        const P t387 = t384 + t386;
        const P t388 = P(-c[19], c[19]) * t356;
        const P t389 = shuffled<1, 0>(t356);
        const P t390 = c[18] * t389;
        const P t391 = t388 + t390;
        const V t392 = c[21] * t320;
        // spectrum block of 2
        const V t393 = t361 - t392;
        const V t394 = t361 + t392;
        const P t395 = joined(t393, t394);
        // spectrum block of 2
        const P t396 = t395 + t378;
        const P t397 = t395 - t378;
        const P t398 = shuffled<0, 3>(t391, t365);
        const P t399 = shuffled<0, 3>(t365, t391);
        // complex block of 2
        const P t400 = t398 - t399;
        const P t401 = t365 + t391;
        // complex block of 2
        const P t402 = t382 + t374;
        const P t403 = shuffled<0, 3>(t382, t374);
        const P t404 = shuffled<0, 3>(t374, t382);
        const P t405 = t403 - t404;
        const P t406 = flipped<0, 1>(t402);
        // complex block of 2
        const P t407 = t400 + t406;
        const P t408 = t400 - t406;
        const P t409 = shuffled<1, 0>(t405);
        // complex block of 2
        const P t410 = t401 + t409;
        const P t411 = shuffled<0, 3>(t409, t401);
        const P t412 = shuffled<0, 3>(t401, t409);
        const P t413 = t411 - t412;
        // spectrum block of 16
        const P t414 = c[2] * t410;
        const P t415 = shuffled<1, 0>(t410);
        const P t416 = P(c[3], -c[3]) * t415;
        const P t417 = t414 + t416;
        const P t418 = shuffled<1, 0>(t408);
        const P t419 = flipped<0, 1>(t418);
        const P t420 = t408 + t419;
        const P t421 = c[3] * t413;
        const P t422 = shuffled<1, 0>(t413);
        const P t423 = P(-c[2], c[2]) * t422;
        const P t424 = t421 + t423;
        const V t425 = part<0>(t370);
        const V t426 = part<0>(t387);
        // mirrored skew block of 4
        const V t427 = t425 - t426;
        const V t428 = part<1>(t370);
        const V t429 = part<1>(t387);
        const V t430 = t428 + t429;
        const V t431 = t425 + t426;
        const V t432 = c[1] * t427;
        const V t433 = c[1] * t430;
        const V t434 = t432 + t433;
        const V t435 = t429 - t428;
        const V t436 = t432 - t433;
        const P t437 = joined(t431, t434);
        // spectrum block of 2
        const P t438 = t396 + t437;
        const P t439 = t396 - t437;
        const P t440 = shuffled<0, 2>(t407, t417);
        const P t441 = flipped<0, 1>(t440);
        // spectrum block of 2
        const P t442 = t438 + t441;
        io.out(37, 1, t442);
        const P t443 = t438 - t441;
        io.out(31, 16, t443);
        const P t444 = shuffled<1, 3>(t407, t417);
        // spectrum block of 2
        const P t445 = t439 - t444;
        io.out(46, 4, t445);
        const P t446 = t439 + t444;
        io.out(22, 13, t446);
        const P t447 = joined(t435, t436);
        // spectrum block of 2
        const P t448 = t397 - t447;
        const P t449 = t397 + t447;
        // spectrum block of 16
        const P t450 = P(c[1], -c[1]) * t420;
        const P t451 = shuffled<1, 2>(t450, t424);
        // spectrum block of 2
        const P t452 = t448 + t451;
        io.out(40, 19, t452);
        const P t453 = t448 - t451;
        io.out(28, 49, t453);
        const P t454 = shuffled<0, 3>(t450, t424);
        // spectrum block of 2
        const P t455 = t449 - t454;
        io.out(7, 25, t455);
        const P t456 = t449 + t454;
        io.out(10, 43, t456);
        // spectrum block of 17, multiplier 3
        const V t457 = t7 + t319;
        io.out(34, t457);
    }
};

}  // namespace zulg
