// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 64.
// Inverse DFT to 64 real points, twiddled 16, 4; two lanes to a register.
// 121 sums, 83 differences, 99 products of registers, which do the 660 steps of the graph, those with
// `scale` included; 84 shuffles, 29 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<64> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.9238795325112867,  // c[1]: cos 2 pi 15/16
        0.3826834323650898,  // c[2]: -sin 2 pi 15/16
        0.7071067811865476,  // c[3]: cos 2 pi 1/8
        0.9807852804032304,  // c[4]: cos 2 pi 62/64
        0.19509032201612828,  // c[5]: -sin 2 pi 62/64
        0.8314696123025452,  // c[6]: cos 2 pi 58/64
        0.5555702330196022,  // c[7]: -sin 2 pi 58/64
        0.9951847266721969,  // c[8]: cos 2 pi 63/64
        0.0980171403295606,  // c[9]: -sin 2 pi 63/64
        0.9569403357322088,  // c[10]: cos 2 pi 61/64
        0.2902846772544624,  // c[11]: -sin 2 pi 61/64
        0.881921264348355,  // c[12]: cos 2 pi 59/64
        0.47139673682599764,  // c[13]: -sin 2 pi 59/64
        0.773010453362737,  // c[14]: cos 2 pi 57/64
        0.6343932841636455,  // c[15]: -sin 2 pi 57/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x32r = io.re(32);
        // spectrum block of 2
        const V t0 = x0r + x32r;
        const V t1 = x0r - x32r;
        const P t2 = joined(t0, t1);
        const P x16 = io.pair(16);
        // doubled bins
        const P t3 = P(c[0], -c[0]) * x16;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x28 = io.pair(28);
        const P t7 = P(c[0], -c[0]) * x28;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x20 = io.pair(20);
        // doubled bins
        const P t10 = c[0] * x20;
        const P x12 = io.pair(12);
        const P t11 = P(c[0], -c[0]) * x12;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        // complex block of 2
        const P t14 = t8 + t12;
        const P t15 = t8 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<1, 0>(t16);
        // complex block of 2
        const P t18 = t9 + t17;
        const P t19 = t9 - t17;
        // spectrum block of 16
        const P t20 = c[1] * t18;
        const P t21 = shuffled<1, 0>(t18);
        const P t22 = P(-c[2], c[2]) * t21;
        const P t23 = t20 + t22;
        const P t24 = shuffled<1, 0>(t15);
        const P t25 = flipped<0, 1>(t24);
        const P t26 = t15 + t25;
        const P t27 = c[2] * t19;
        const P t28 = shuffled<1, 0>(t19);
        const P t29 = P(-c[1], c[1]) * t28;
        const P t30 = t27 + t29;
        const P x8 = io.pair(8);
        // doubled bins
        const P t31 = c[0] * x8;
        const V t32 = part<0>(t31);
        const P x24 = io.pair(24);
        const P t33 = c[0] * x24;
        const V t34 = part<0>(t33);
        // mirrored skew block of 4
        const V t35 = t32 - t34;
        const V t36 = part<1>(t31);
        const V t37 = part<1>(t33);
        const V t38 = t36 + t37;
        const V t39 = t32 + t34;
        const V t40 = c[3] * t35;
        const V t41 = c[3] * t38;
        const V t42 = t40 - t41;
        const V t43 = t36 - t37;
        const V t44 = t40 + t41;
        const P t45 = joined(t39, t42);
        // spectrum block of 2
        const P t46 = t4 + t45;
        const P t47 = t4 - t45;
        const P t48 = shuffled<0, 2>(t14, t23);
        // spectrum block of 2
        const P t49 = t46 + t48;
        const P t50 = t46 - t48;
        const P t51 = shuffled<1, 3>(t14, t23);
        // spectrum block of 2
        const P t52 = t47 - t51;
        const P t53 = t47 + t51;
        const P t54 = joined(t43, t44);
        // spectrum block of 2
        const P t55 = t5 - t54;
        const P t56 = t5 + t54;
        // spectrum block of 16
        const P t57 = P(c[3], -c[3]) * t26;
        const P t58 = shuffled<1, 2>(t57, t30);
        // spectrum block of 2
        const P t59 = t55 + t58;
        const P t60 = t55 - t58;
        const P t61 = shuffled<0, 3>(t57, t30);
        // spectrum block of 2
        const P t62 = t56 - t61;
        const P t63 = t56 + t61;
        const P x1 = io.pair(1);
        // doubled bins
        const P t64 = c[0] * x1;
        const P x31 = io.pair(31);
        const P t65 = P(c[0], -c[0]) * x31;
        // complex block of 2
        const P t66 = t64 + t65;
        const P t67 = t64 - t65;
        const P x5 = io.pair(5);
        // doubled bins
        const P t68 = c[0] * x5;
        const P x27 = io.pair(27);
        const P t69 = P(c[0], -c[0]) * x27;
        // complex block of 2
        const P t70 = t68 + t69;
        const P t71 = t68 - t69;
        const P x9 = io.pair(9);
        // doubled bins
        const P t72 = c[0] * x9;
        const P x23 = io.pair(23);
        const P t73 = P(c[0], -c[0]) * x23;
        // complex block of 2
        const P t74 = t72 + t73;
        const P t75 = t72 - t73;
        const P x13 = io.pair(13);
        // doubled bins
        const P t76 = c[0] * x13;
        const P x19 = io.pair(19);
        const P t77 = P(c[0], -c[0]) * x19;
        // complex block of 2
        const P t78 = t76 + t77;
        const P t79 = t76 - t77;
        const P x17 = io.pair(17);
        // doubled bins
        const P t80 = c[0] * x17;
        const P x15 = io.pair(15);
        const P t81 = P(c[0], -c[0]) * x15;
        // complex block of 2
        const P t82 = t80 + t81;
        const P t83 = t80 - t81;
        const P x21 = io.pair(21);
        // doubled bins
        const P t84 = c[0] * x21;
        const P x11 = io.pair(11);
        const P t85 = P(c[0], -c[0]) * x11;
        // complex block of 2
        const P t86 = t84 + t85;
        const P t87 = t84 - t85;
        const P x25 = io.pair(25);
        // doubled bins
        const P t88 = c[0] * x25;
        const P x7 = io.pair(7);
        const P t89 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t90 = t88 + t89;
        const P t91 = t88 - t89;
        const P x29 = io.pair(29);
        // doubled bins
        const P t92 = c[0] * x29;
        const P x3 = io.pair(3);
        const P t93 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t94 = t92 + t93;
        const P t95 = t92 - t93;
        // complex block of 2
        const P t96 = t66 + t82;
        const P t97 = t66 - t82;
        // complex block of 2
        const P t98 = t70 + t86;
        const P t99 = t70 - t86;
        // complex block of 2
        const P t100 = t74 + t90;
        const P t101 = t74 - t90;
        // complex block of 2
        const P t102 = t78 + t94;
        const P t103 = t78 - t94;
        // complex block of 2
        const P t104 = t96 + t100;
        const P t105 = t96 - t100;
        // complex block of 2
        const P t106 = t98 + t102;
        const P t107 = t98 - t102;
        // complex block of 2
        const P t108 = t104 + t106;
        const P t109 = t104 - t106;
        const P t110 = shuffled<1, 0>(t107);
        const P t111 = flipped<1, 0>(t110);
        // complex block of 2
        const P t112 = t105 + t111;
        const P t113 = t105 - t111;
        // complex block of 8
        const P t114 = c[3] * t99;
        const P t115 = shuffled<1, 0>(t114);
        const P t116 = flipped<1, 0>(t115);
        const P t117 = t114 + t116;
        const P t118 = c[3] * t103;
        const P t119 = shuffled<1, 0>(t118);
        const P t120 = flipped<1, 0>(t119);
        const P t121 = t118 + t120;
        const P t122 = shuffled<1, 0>(t101);
        const P t123 = flipped<1, 0>(t122);
        // complex block of 2
        const P t124 = t97 + t123;
        const P t125 = t97 - t123;
        const P t126 = shuffled<1, 0>(t121);
        const P t127 = flipped<1, 0>(t126);
        // complex block of 2
        const P t128 = t117 + t127;
        const P t129 = t117 - t127;
        // complex block of 2
        const P t130 = t124 + t128;
        const P t131 = t124 - t128;
        const P t132 = shuffled<1, 0>(t129);
        const P t133 = flipped<1, 0>(t132);
        // complex block of 2
        const P t134 = t125 + t133;
        const P t135 = t125 - t133;
        // complex block of 16
        const P t136 = c[1] * t71;
        const P t137 = shuffled<1, 0>(t71);
        const P t138 = P(-c[2], c[2]) * t137;
        const P t139 = t136 + t138;
        const P t140 = c[3] * t75;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = flipped<1, 0>(t141);
        const P t143 = t140 + t142;
        const P t144 = c[2] * t79;
        const P t145 = shuffled<1, 0>(t79);
        const P t146 = P(-c[1], c[1]) * t145;
        const P t147 = t144 + t146;
        const P t148 = shuffled<1, 0>(t87);
        const P t149 = c[1] * t148;
        const P t150 = P(c[2], -c[2]) * t87;
        const P t151 = t149 + t150;
        const P t152 = c[3] * t91;
        const P t153 = shuffled<1, 0>(t152);
        const P t154 = flipped<1, 0>(t153);
        const P t155 = t152 + t154;
        const P t156 = shuffled<1, 0>(t95);
        const P t157 = c[2] * t156;
        const P t158 = P(c[1], -c[1]) * t95;
        const P t159 = t157 + t158;
        const P t160 = shuffled<1, 0>(t83);
        const P t161 = flipped<1, 0>(t160);
        // complex block of 2
        const P t162 = t67 + t161;
        const P t163 = t67 - t161;
        const P t164 = flipped<1, 0>(t151);
        // complex block of 2
        const P t165 = t139 + t164;
        const P t166 = t139 - t164;
        const P t167 = shuffled<1, 0>(t155);
        const P t168 = flipped<1, 0>(t167);
        // complex block of 2
        const P t169 = t143 + t168;
        const P t170 = t143 - t168;
        const P t171 = flipped<1, 0>(t159);
        // complex block of 2
        const P t172 = t147 + t171;
        const P t173 = t147 - t171;
        // complex block of 2
        const P t174 = t162 + t169;
        const P t175 = t162 - t169;
        // complex block of 2
        const P t176 = t165 + t172;
        const P t177 = t165 - t172;
        // complex block of 2
        const P t178 = t174 + t176;
        const P t179 = t174 - t176;
        const P t180 = shuffled<1, 0>(t177);
        const P t181 = flipped<1, 0>(t180);
        // complex block of 2
        const P t182 = t175 + t181;
        const P t183 = t175 - t181;
        // complex block of 8
        const P t184 = c[3] * t166;
        const P t185 = shuffled<1, 0>(t184);
        const P t186 = flipped<1, 0>(t185);
        const P t187 = t184 + t186;
        const P t188 = c[3] * t173;
        const P t189 = shuffled<1, 0>(t188);
        const P t190 = flipped<1, 0>(t189);
        const P t191 = t188 + t190;
        const P t192 = shuffled<1, 0>(t170);
        const P t193 = flipped<1, 0>(t192);
        // complex block of 2
        const P t194 = t163 + t193;
        const P t195 = t163 - t193;
        const P t196 = shuffled<1, 0>(t191);
        const P t197 = flipped<1, 0>(t196);
        // complex block of 2
        const P t198 = t187 + t197;
        const P t199 = t187 - t197;
        // complex block of 2
        const P t200 = t194 + t198;
        const P t201 = t194 - t198;
        const P t202 = shuffled<1, 0>(t199);
        const P t203 = flipped<1, 0>(t202);
        // complex block of 2
        const P t204 = t195 + t203;
        const P t205 = t195 - t203;
        // spectrum block of 64
        const P t206 = c[8] * t178;
        const P t207 = shuffled<1, 0>(t178);
        const P t208 = P(-c[9], c[9]) * t207;
        const P t209 = t206 + t208;
        const P t210 = c[4] * t130;
        const P t211 = shuffled<1, 0>(t130);
        const P t212 = P(-c[5], c[5]) * t211;
        const P t213 = t210 + t212;
        const P t214 = c[10] * t200;
        const P t215 = shuffled<1, 0>(t200);
        const P t216 = P(-c[11], c[11]) * t215;
        const P t217 = t214 + t216;
        const P t218 = c[1] * t112;
        const P t219 = shuffled<1, 0>(t112);
        const P t220 = P(-c[2], c[2]) * t219;
        const P t221 = t218 + t220;
        const P t222 = c[12] * t182;
        const P t223 = shuffled<1, 0>(t182);
        const P t224 = P(-c[13], c[13]) * t223;
        const P t225 = t222 + t224;
        const P t226 = c[6] * t134;
        const P t227 = shuffled<1, 0>(t134);
        const P t228 = P(-c[7], c[7]) * t227;
        const P t229 = t226 + t228;
        const P t230 = c[14] * t204;
        const P t231 = shuffled<1, 0>(t204);
        const P t232 = P(-c[15], c[15]) * t231;
        const P t233 = t230 + t232;
        const P t234 = shuffled<1, 0>(t109);
        const P t235 = flipped<0, 1>(t234);
        const P t236 = t109 + t235;
        const P t237 = c[15] * t179;
        const P t238 = shuffled<1, 0>(t179);
        const P t239 = P(-c[14], c[14]) * t238;
        const P t240 = t237 + t239;
        const P t241 = c[7] * t131;
        const P t242 = shuffled<1, 0>(t131);
        const P t243 = P(-c[6], c[6]) * t242;
        const P t244 = t241 + t243;
        const P t245 = c[13] * t201;
        const P t246 = shuffled<1, 0>(t201);
        const P t247 = P(-c[12], c[12]) * t246;
        const P t248 = t245 + t247;
        const P t249 = c[2] * t113;
        const P t250 = shuffled<1, 0>(t113);
        const P t251 = P(-c[1], c[1]) * t250;
        const P t252 = t249 + t251;
        const P t253 = c[11] * t183;
        const P t254 = shuffled<1, 0>(t183);
        const P t255 = P(-c[10], c[10]) * t254;
        const P t256 = t253 + t255;
        const P t257 = c[5] * t135;
        const P t258 = shuffled<1, 0>(t135);
        const P t259 = P(-c[4], c[4]) * t258;
        const P t260 = t257 + t259;
        const P t261 = c[9] * t205;
        const P t262 = shuffled<1, 0>(t205);
        const P t263 = P(-c[8], c[8]) * t262;
        const P t264 = t261 + t263;
        const P x2 = io.pair(2);
        // doubled bins
        const P t265 = c[0] * x2;
        const P x30 = io.pair(30);
        const P t266 = P(c[0], -c[0]) * x30;
        // complex block of 2
        const P t267 = t265 + t266;
        const P t268 = t265 - t266;
        // mirrored skew block of 16
        const P t269 = c[4] * t268;
        const P t270 = shuffled<1, 0>(t268);
        const P t271 = P(-c[5], c[5]) * t270;
        const P t272 = t269 + t271;
        const P x6 = io.pair(6);
        // doubled bins
        const P t273 = c[0] * x6;
        const P x26 = io.pair(26);
        const P t274 = P(c[0], -c[0]) * x26;
        // complex block of 2
        const P t275 = t273 + t274;
        const P t276 = t273 - t274;
        // mirrored skew block of 16
        const P t277 = c[6] * t276;
        const P t278 = shuffled<1, 0>(t276);
        const P t279 = P(-c[7], c[7]) * t278;
        const P t280 = t277 + t279;
        const P x10 = io.pair(10);
        // doubled bins
        const P t281 = c[0] * x10;
        const P x22 = io.pair(22);
        const P t282 = P(c[0], -c[0]) * x22;
        // complex block of 2
        const P t283 = t281 + t282;
        const P t284 = t281 - t282;
        // mirrored skew block of 16
        const P t285 = c[7] * t284;
        const P t286 = shuffled<1, 0>(t284);
        const P t287 = P(-c[6], c[6]) * t286;
        const P t288 = t285 + t287;
        const P x14 = io.pair(14);
        // doubled bins
        const P t289 = c[0] * x14;
        const P x18 = io.pair(18);
        const P t290 = P(c[0], -c[0]) * x18;
        // complex block of 2
        const P t291 = t289 + t290;
        const P t292 = t289 - t290;
        // mirrored skew block of 16
        const P t293 = c[5] * t292;
        const P t294 = shuffled<1, 0>(t292);
        const P t295 = P(-c[4], c[4]) * t294;
        const P t296 = t293 + t295;
        const P t297 = flipped<0, 1>(t291);
        // complex block of 2
        const P t298 = t267 + t297;
        const P t299 = t267 - t297;
        const P t300 = flipped<0, 1>(t275);
        // complex block of 2
        const P t301 = t283 + t300;
        const P t302 = t283 - t300;
        // complex block of 2
        const P t303 = t298 + t301;
        const P t304 = t298 - t301;
        const P t305 = shuffled<1, 0>(t302);
        const P t306 = flipped<1, 0>(t305);
        // complex block of 2
        const P t307 = t299 + t306;
        const P t308 = t299 - t306;
        // mirrored skew block of 8
        const P t309 = c[1] * t307;
        const P t310 = shuffled<1, 0>(t307);
        const P t311 = P(-c[2], c[2]) * t310;
        const P t312 = t309 + t311;
        const P t313 = c[3] * t304;
        const P t314 = shuffled<1, 0>(t313);
        const P t315 = flipped<0, 1>(t314);
        const P t316 = t313 + t315;
        const P t317 = c[2] * t308;
        const P t318 = shuffled<1, 0>(t308);
        const P t319 = P(-c[1], c[1]) * t318;
        const P t320 = t317 + t319;
        const P t321 = flipped<0, 1>(t296);
        // complex block of 2
        const P t322 = t272 + t321;
        const P t323 = t272 - t321;
        const P t324 = flipped<0, 1>(t280);
        // complex block of 2
        const P t325 = t288 + t324;
        const P t326 = t288 - t324;
        // complex block of 2
        const P t327 = t322 + t325;
        const P t328 = t322 - t325;
        const P t329 = shuffled<1, 0>(t326);
        const P t330 = flipped<1, 0>(t329);
        // complex block of 2
        const P t331 = t323 + t330;
        const P t332 = t323 - t330;
        // mirrored skew block of 8
        const P t333 = c[1] * t331;
        const P t334 = shuffled<1, 0>(t331);
        const P t335 = P(-c[2], c[2]) * t334;
        const P t336 = t333 + t335;
        const P t337 = c[3] * t328;
        const P t338 = shuffled<1, 0>(t337);
        const P t339 = flipped<0, 1>(t338);
        const P t340 = t337 + t339;
        const P t341 = c[2] * t332;
        const P t342 = shuffled<1, 0>(t332);
        const P t343 = P(-c[1], c[1]) * t342;
        const P t344 = t341 + t343;
        const P t345 = shuffled<0, 2>(t303, t327);
        // spectrum block of 2
        const P t346 = t49 + t345;
        const P t347 = t49 - t345;
        const P t348 = shuffled<0, 2>(t108, t209);
        // spectrum block of 2
        const P t349 = t346 + t348;
        io.out(0, 1, t349);
        const P t350 = t346 - t348;
        io.out(32, 33, t350);
        const P t351 = shuffled<1, 3>(t108, t209);
        // spectrum block of 2
        const P t352 = t347 - t351;
        io.out(16, 17, t352);
        const P t353 = t347 + t351;
        io.out(48, 49, t353);
        const P t354 = shuffled<0, 2>(t312, t336);
        // spectrum block of 2
        const P t355 = t59 + t354;
        const P t356 = t59 - t354;
        const P t357 = shuffled<0, 2>(t213, t217);
        // spectrum block of 2
        const P t358 = t355 + t357;
        io.out(2, 3, t358);
        const P t359 = t355 - t357;
        io.out(34, 35, t359);
        const P t360 = shuffled<1, 3>(t213, t217);
        // spectrum block of 2
        const P t361 = t356 - t360;
        io.out(18, 19, t361);
        const P t362 = t356 + t360;
        io.out(50, 51, t362);
        const P t363 = shuffled<1, 3>(t316, t340);
        // spectrum block of 2
        const P t364 = t52 - t363;
        const P t365 = t52 + t363;
        const P t366 = shuffled<0, 2>(t221, t225);
        // spectrum block of 2
        const P t367 = t364 + t366;
        io.out(4, 5, t367);
        const P t368 = t364 - t366;
        io.out(36, 37, t368);
        const P t369 = shuffled<1, 3>(t221, t225);
        // spectrum block of 2
        const P t370 = t365 - t369;
        io.out(20, 21, t370);
        const P t371 = t365 + t369;
        io.out(52, 53, t371);
        const P t372 = shuffled<0, 2>(t320, t344);
        // spectrum block of 2
        const P t373 = t62 + t372;
        const P t374 = t62 - t372;
        const P t375 = shuffled<0, 2>(t229, t233);
        // spectrum block of 2
        const P t376 = t373 + t375;
        io.out(6, 7, t376);
        const P t377 = t373 - t375;
        io.out(38, 39, t377);
        const P t378 = shuffled<1, 3>(t229, t233);
        // spectrum block of 2
        const P t379 = t374 - t378;
        io.out(22, 23, t379);
        const P t380 = t374 + t378;
        io.out(54, 55, t380);
        const P t381 = shuffled<1, 3>(t303, t327);
        // spectrum block of 2
        const P t382 = t50 - t381;
        const P t383 = t50 + t381;
        // spectrum block of 64
        const P t384 = P(c[3], -c[3]) * t236;
        const P t385 = shuffled<1, 2>(t384, t240);
        // spectrum block of 2
        const P t386 = t382 + t385;
        io.out(8, 9, t386);
        const P t387 = t382 - t385;
        io.out(40, 41, t387);
        const P t388 = shuffled<0, 3>(t384, t240);
        // spectrum block of 2
        const P t389 = t383 - t388;
        io.out(24, 25, t389);
        const P t390 = t383 + t388;
        io.out(56, 57, t390);
        const P t391 = shuffled<1, 3>(t312, t336);
        // spectrum block of 2
        const P t392 = t60 - t391;
        const P t393 = t60 + t391;
        const P t394 = shuffled<0, 2>(t244, t248);
        // spectrum block of 2
        const P t395 = t392 + t394;
        io.out(10, 11, t395);
        const P t396 = t392 - t394;
        io.out(42, 43, t396);
        const P t397 = shuffled<1, 3>(t244, t248);
        // spectrum block of 2
        const P t398 = t393 - t397;
        io.out(26, 27, t398);
        const P t399 = t393 + t397;
        io.out(58, 59, t399);
        const P t400 = shuffled<0, 2>(t316, t340);
        // spectrum block of 2
        const P t401 = t53 - t400;
        const P t402 = t53 + t400;
        const P t403 = shuffled<0, 2>(t252, t256);
        // spectrum block of 2
        const P t404 = t401 + t403;
        io.out(12, 13, t404);
        const P t405 = t401 - t403;
        io.out(44, 45, t405);
        const P t406 = shuffled<1, 3>(t252, t256);
        // spectrum block of 2
        const P t407 = t402 - t406;
        io.out(28, 29, t407);
        const P t408 = t402 + t406;
        io.out(60, 61, t408);
        const P t409 = shuffled<1, 3>(t320, t344);
        // spectrum block of 2
        const P t410 = t63 - t409;
        const P t411 = t63 + t409;
        const P t412 = shuffled<0, 2>(t260, t264);
        // spectrum block of 2
        const P t413 = t410 + t412;
        io.out(14, 15, t413);
        const P t414 = t410 - t412;
        io.out(46, 47, t414);
        const P t415 = shuffled<1, 3>(t260, t264);
        // spectrum block of 2
        const P t416 = t411 - t415;
        io.out(30, 31, t416);
        const P t417 = t411 + t415;
        io.out(62, 63, t417);
    }
};

}  // namespace zulg
