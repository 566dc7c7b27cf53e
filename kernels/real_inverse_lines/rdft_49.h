// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 49.
// Inverse DFT to 49 real points, twiddled 7, 7; up to four lanes to a register.
// 83 sums, 46 differences, 107 products of registers, which do the 829 steps of the graph, those with
// `scale` included; 106 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<49> {
    static constexpr int steps = 829;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.6234898018587335,  // c[3]: cos 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.7818314824680298,  // c[6]: sin 2 pi 1/7
        0.7183493500977276,  // c[7]: cos 2 pi 43/49
        0.6956825506034864,  // c[8]: -sin 2 pi 43/49
        0.03205157757165517,  // c[9]: cos 2 pi 37/49
        0.9994862162006879,  // c[10]: -sin 2 pi 37/49
        0.9672948630390295,  // c[11]: cos 2 pi 47/49
        0.2536545839095074,  // c[12]: -sin 2 pi 47/49
        0.9269167573460217,  // c[13]: cos 2 pi 46/49
        0.8713187041233893,  // c[14]: cos 2 pi 45/49
        0.37526700487937414,  // c[15]: -sin 2 pi 46/49
        0.4907175520039379,  // c[16]: -sin 2 pi 45/49
        0.8014136218679566,  // c[17]: cos 2 pi 44/49
        0.598110530491216,  // c[18]: -sin 2 pi 44/49
        0.28452758663103245,  // c[19]: cos 2 pi 39/49
        0.9586678530366606,  // c[20]: -sin 2 pi 39/49
        0.9384684220497604,  // c[21]: -sin 2 pi 34/49
        0.7402779970753155,  // c[22]: -sin 2 pi 31/49
        0.3453650544213076,  // c[23]: -cos 2 pi 34/49
        0.6723008902613168,  // c[24]: -cos 2 pi 31/49
        0.9917900138232462,  // c[25]: cos 2 pi 48/49
        0.12787716168450602,  // c[26]: -sin 2 pi 48/49
        0.518392568310525,  // c[27]: cos 2 pi 41/49
        0.8551427630053462,  // c[28]: -sin 2 pi 41/49
        0.40478334312239383,  // c[29]: cos 2 pi 40/49
        0.9144126230158125,  // c[30]: -sin 2 pi 40/49
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const Q x8_9 = io.pairs(8, 9);
        // doubled bins
        const Q t0 = c[0] * x8_9;
        const Q x6_5 = io.pairs(6, 5);
        const Q t1 = Q(c[0], -c[0], c[0], -c[0]) * x6_5;
        // complex block of 7
        const Q t2 = t0 + t1;
        const Q t3 = t0 - t1;
        const Q x15_16 = io.pairs(15, 16);
        // doubled bins
        const Q t4 = c[0] * x15_16;
        const Q x13_12 = io.pairs(13, 12);
        const Q t5 = Q(c[0], -c[0], c[0], -c[0]) * x13_12;
        // complex block of 7
        const Q t6 = t4 + t5;
        const Q t7 = flipped<0, 1, 0, 1>(t5);
        const Q t8 = flipped<1, 0, 1, 0>(t4);
        const Q t9 = t7 + t8;
        const Q x22_23 = io.pairs(22, 23);
        // doubled bins
        const Q t10 = c[0] * x22_23;
        const Q x20_19 = io.pairs(20, 19);
        const Q t11 = Q(c[0], -c[0], c[0], -c[0]) * x20_19;
        // complex block of 7
        const Q t12 = t10 + t11;
        const Q t13 = flipped<0, 1, 0, 1>(t11);
        const Q t14 = flipped<1, 0, 1, 0>(t10);
        const Q t15 = t13 + t14;
        const Q t16 = t2 + t6;
        const Q t17 = t16 + t12;
        const Q x1_2 = io.pairs(1, 2);
        // doubled bins
        const Q t18 = c[0] * x1_2;
        // complex block of 7
        const Q t19 = c[1] * t2;
        const Q t20 = t18 - t19;
        const Q t21 = c[2] * t6;
        const Q t22 = t20 - t21;
        const Q t23 = c[3] * t12;
        const Q t24 = t22 + t23;
        const Q t25 = c[4] * t3;
        const Q t26 = Q(c[5], -c[5], c[5], -c[5]) * t9;
        const Q t27 = t25 + t26;
        const Q t28 = Q(c[6], -c[6], c[6], -c[6]) * t15;
        const Q t29 = t27 + t28;
        const Q t30 = c[3] * t2;
        const Q t31 = c[1] * t6;
        const Q t32 = t30 - t31;
        const Q t33 = c[2] * t12;
        const Q t34 = t32 - t33;
        const Q t35 = t34 + t18;
        const Q t36 = c[6] * t3;
        const Q t37 = Q(-c[4], c[4], -c[4], c[4]) * t9;
        const Q t38 = t36 + t37;
        const Q t39 = Q(-c[5], c[5], -c[5], c[5]) * t15;
        const Q t40 = t38 + t39;
        const P x10 = io.pair(10);
        // doubled bins
        const P t41 = c[0] * x10;
        const P x4 = io.pair(4);
        const P t42 = P(c[0], -c[0]) * x4;
        // complex block of 7
        const P t43 = t41 + t42;
        const P t44 = t41 - t42;
        const P x17 = io.pair(17);
        // doubled bins
        const P t45 = c[0] * x17;
        const P x11 = io.pair(11);
        const P t46 = P(c[0], -c[0]) * x11;
        // complex block of 7
        const P t47 = t45 + t46;
        const P t48 = flipped<0, 1>(t46);
        const P t49 = flipped<1, 0>(t45);
        const P t50 = t48 + t49;
        const P x24 = io.pair(24);
        // doubled bins
        const P t51 = c[0] * x24;
        const P x18 = io.pair(18);
        const P t52 = P(c[0], -c[0]) * x18;
        // complex block of 7
        const P t53 = t51 + t52;
        const P t54 = flipped<0, 1>(t52);
        const P t55 = flipped<1, 0>(t51);
        const P t56 = t54 + t55;
        const P t57 = t43 + t47;
        const P x3 = io.pair(3);
        // doubled bins
        const P t58 = c[0] * x3;
        // complex block of 7
        const P t59 = c[1] * t43;
        const P t60 = t58 - t59;
        const P t61 = c[2] * t47;
        const P t62 = t60 - t61;
        const P t63 = c[4] * t44;
        const P t64 = P(c[5], -c[5]) * t50;
        const P t65 = t63 + t64;
        const P t66 = P(c[6], -c[6]) * t56;
        const P t67 = t65 + t66;
        const P t68 = c[3] * t43;
        const P t69 = c[1] * t47;
        const P t70 = t68 - t69;
        const P t71 = c[2] * t53;
        const P t72 = t70 - t71;
        const P t73 = c[6] * t44;
        const P t74 = P(-c[4], c[4]) * t50;
        const P t75 = t73 + t74;
        const P t76 = P(-c[5], c[5]) * t56;
        const P t77 = t75 + t76;
        // complex block of 7
        const Q t78 = t17 + t18;
        const Q t79 = shuffled<1, 0, 3, 2>(t29);
        const Q t80 = flipped<0, 1, 0, 1>(t79);
        const Q t81 = t24 + t80;
        const Q t82 = shuffled<1, 0, 3, 2>(t40);
        const Q t83 = flipped<0, 1, 0, 1>(t82);
        const Q t84 = t35 + t83;
        const Q t85 = shuffled<0, 1, 4, 5>(t81, t84);
        // spectrum block of 49
        const Q t86 = Q(c[17], c[17], c[7], c[7]) * t85;
        const Q t87 = shuffled<1, 0, 3, 2>(t85);
        const Q t88 = Q(-c[18], c[18], -c[8], c[8]) * t87;
        const Q t89 = t86 + t88;
        const Q t90 = shuffled<2, 3, 6, 7>(t81, t84);
        const Q t91 = Q(c[19], c[19], c[9], c[9]) * t90;
        const Q t92 = shuffled<1, 0, 3, 2>(t90);
        const Q t93 = Q(-c[20], c[20], -c[10], c[10]) * t92;
        const Q t94 = t91 + t93;
        // complex block of 7
        const P t95 = t57 + t53;
        const P t96 = t95 + t58;
        const P t97 = c[3] * t53;
        const P t98 = t62 + t97;
        const P t99 = shuffled<1, 0>(t67);
        const P t100 = flipped<0, 1>(t99);
        const P t101 = t98 + t100;
        const P t102 = t72 + t58;
        const P t103 = shuffled<1, 0>(t77);
        const P t104 = flipped<0, 1>(t103);
        const P t105 = t102 + t104;
        const P x7 = io.pair(7);
        // doubled bins
        const P t106 = c[0] * x7;
        const P t107 = part<0>(t78);
        const P t108 = shuffled<0, 2>(t106, t107);
        const P t109 = part<0>(t89);
        const P t110 = part<1>(t89);
        const P t111 = shuffled<0, 2>(t109, t110);
        const Q t112 = joined(t108, t111);
        const P x14 = io.pair(14);
        const P t113 = c[0] * x14;
        const P t114 = part<1>(t78);
        const P t115 = shuffled<0, 2>(t113, t114);
        const P t116 = part<0>(t94);
        const P t117 = part<1>(t94);
        const P t118 = shuffled<0, 2>(t116, t117);
        const Q t119 = joined(t115, t118);
        // spectrum block of 7
        const Q t120 = t112 + t119;
        const Q t121 = joined(t101, t105);
        const Q t122 = shuffled<1, 0, 3, 2>(t121);
        // spectrum block of 49
        const Q t123 = Q(c[21], c[21], c[22], c[22]) * t122;
        const Q t124 = Q(c[23], -c[23], c[24], -c[24]) * t121;
        const Q t125 = t123 + t124;
        const P x21 = io.pair(21);
        // doubled bins
        const P t126 = c[0] * x21;
        const P t127 = shuffled<0, 2>(t126, t96);
        const P t128 = part<0>(t125);
        const P t129 = part<1>(t125);
        const P t130 = shuffled<0, 2>(t128, t129);
        const P t131 = flipped<1, 1>(t130);
        const Q t132 = joined(t127, t131);
        // spectrum block of 7
        const Q t133 = t120 + t132;
        const P t134 = part<0>(t133);
        const V t135 = part<0>(t134);
        const V x0r = io.re(0);
        const V t136 = t135 + x0r;
        const Q t137 = c[3] * t112;
        const Q t138 = c[1] * t119;
        const Q t139 = t137 - t138;
        // complex block of 7
        const Q t140 = t35 - t83;
        const Q t141 = t24 - t80;
        const Q t142 = c[2] * t2;
        const Q t143 = t18 - t142;
        const Q t144 = c[3] * t6;
        const Q t145 = t143 + t144;
        const Q t146 = c[5] * t3;
        const Q t147 = Q(c[6], -c[6], c[6], -c[6]) * t9;
        const Q t148 = t146 + t147;
        const Q t149 = Q(-c[4], c[4], -c[4], c[4]) * t15;
        const Q t150 = t148 + t149;
        const Q t151 = c[1] * t12;
        const Q t152 = t145 - t151;
        const Q t153 = shuffled<1, 0, 3, 2>(t150);
        const Q t154 = flipped<1, 0, 1, 0>(t153);
        const Q t155 = t152 + t154;
        const Q t156 = t152 - t154;
        // complex block of 7
        const P t157 = c[2] * t43;
        const P t158 = t58 - t157;
        const P t159 = c[3] * t47;
        const P t160 = t158 + t159;
        const P t161 = c[1] * t53;
        const P t162 = t160 - t161;
        const P t163 = c[5] * t44;
        const P t164 = P(c[6], -c[6]) * t50;
        const P t165 = t163 + t164;
        const P t166 = P(-c[4], c[4]) * t56;
        const P t167 = t165 + t166;
        const P t168 = joined(x0r, t136);
        // spectrum block of 7
        const Q t169 = c[1] * t112;
        const P t170 = part<0>(t169);
        const P t171 = t168 - t170;
        const V t172 = part<0>(t171);
        const Q t173 = c[2] * t119;
        const P t174 = part<0>(t173);
        const V t175 = part<0>(t174);
        const V t176 = t172 - t175;
        const Q t177 = Q(c[3], c[3], -c[3], -c[3]) * t132;
        const P t178 = part<0>(t177);
        const V t179 = part<0>(t178);
        const V t180 = t176 + t179;
        const V t181 = part<1>(t171);
        const V t182 = part<1>(t174);
        // spectrum block of 7
        const V t183 = t181 - t182;
        const P t184 = shuffled<1, 3>(t106, t107);
        const P t185 = shuffled<1, 3>(t109, t110);
        const Q t186 = joined(t184, t185);
        // spectrum block of 7
        const Q t187 = c[4] * t186;
        const P t188 = shuffled<1, 3>(t113, t114);
        const P t189 = shuffled<1, 3>(t116, t117);
        const Q t190 = joined(t188, t189);
        const Q t191 = c[5] * t190;
        const Q t192 = t187 - t191;
        const P t193 = shuffled<1, 3>(t126, t96);
        const P t194 = shuffled<1, 3>(t128, t129);
        const Q t195 = joined(t193, t194);
        const Q t196 = c[6] * t195;
        const Q t197 = t192 - t196;
        const Q t198 = -c[2] * t132;
        const Q t199 = t139 + t198;
        const P t200 = part<0>(t199);
        const P t201 = t200 + t168;
        const Q t202 = c[6] * t186;
        const Q t203 = c[4] * t190;
        const Q t204 = t202 + t203;
        const Q t205 = c[5] * t195;
        const Q t206 = t204 + t205;
        const P t207 = part<0>(t206);
        const P t208 = t201 + t207;
        const V t209 = part<1>(t208);
        io.out(42, t209);
        const P t210 = part<0>(t197);
        const V t211 = part<0>(t210);
        const V t212 = t180 + t211;
        const V t213 = part<0>(t208);
        const P t214 = joined(t212, t213);
        const P t215 = part<1>(t169);
        // spectrum block of 7
        const P t216 = t214 - t215;
        const Q t217 = joined(t168, t214);
        // spectrum block of 7
        const Q t218 = c[2] * t112;
        const Q t219 = t217 - t218;
        const P t220 = part<1>(t199);
        const V t221 = part<0>(t220);
        // spectrum block of 7
        const V t222 = t221 + t212;
        const P t223 = part<1>(t173);
        const P t224 = t216 - t223;
        // spectrum block of 7
        const Q t225 = c[3] * t119;
        const Q t226 = t219 + t225;
        const V t227 = part<1>(t178);
        // spectrum block of 7
        const V t228 = t183 + t227;
        const V t229 = part<1>(t220);
        // spectrum block of 7
        const V t230 = t229 + t213;
        const Q t231 = shuffled<0, 1, 4, 5>(t140, t141);
        // spectrum block of 49
        const Q t232 = Q(c[25], c[25], c[11], c[11]) * t231;
        const Q t233 = shuffled<1, 0, 3, 2>(t231);
        const Q t234 = Q(-c[26], c[26], -c[12], c[12]) * t233;
        const Q t235 = t232 + t234;
        const Q t236 = shuffled<0, 1, 4, 5>(t155, t156);
        const Q t237 = Q(c[13], c[13], c[14], c[14]) * t236;
        const Q t238 = shuffled<1, 0, 3, 2>(t236);
        const Q t239 = Q(-c[15], c[15], -c[16], c[16]) * t238;
        const Q t240 = t237 + t239;
        const Q t241 = shuffled<2, 3, 6, 7>(t140, t141);
        const Q t242 = Q(c[11], c[11], c[14], c[14]) * t241;
        const Q t243 = shuffled<1, 0, 3, 2>(t241);
        const Q t244 = Q(-c[12], c[12], -c[16], c[16]) * t243;
        const Q t245 = t242 + t244;
        const Q t246 = shuffled<2, 3, 6, 7>(t155, t156);
        const Q t247 = Q(c[7], c[7], c[27], c[27]) * t246;
        const Q t248 = shuffled<1, 0, 3, 2>(t246);
        const Q t249 = Q(-c[8], c[8], -c[28], c[28]) * t248;
        const Q t250 = t247 + t249;
        const P t251 = part<0>(t235);
        const P t252 = part<1>(t235);
        const P t253 = shuffled<0, 2>(t251, t252);
        const P t254 = part<0>(t240);
        const P t255 = part<1>(t240);
        const P t256 = shuffled<0, 2>(t254, t255);
        const Q t257 = joined(t253, t256);
        const P t258 = part<0>(t245);
        const P t259 = part<1>(t245);
        const P t260 = shuffled<0, 2>(t258, t259);
        const P t261 = part<0>(t250);
        const P t262 = part<1>(t250);
        const P t263 = shuffled<0, 2>(t261, t262);
        const Q t264 = joined(t260, t263);
        // spectrum block of 7
        const Q t265 = t257 + t264;
        const Q t266 = c[3] * t257;
        const Q t267 = c[1] * t264;
        const Q t268 = t266 - t267;
        // complex block of 7
        const P t269 = t102 - t104;
        const P t270 = t98 - t100;
        const P t271 = shuffled<1, 0>(t167);
        const P t272 = flipped<1, 0>(t271);
        const P t273 = t162 + t272;
        const P t274 = t162 - t272;
        const Q t275 = joined(t269, t270);
        // spectrum block of 49
        const Q t276 = Q(c[13], c[13], c[7], c[7]) * t275;
        const Q t277 = shuffled<1, 0, 3, 2>(t275);
        const Q t278 = Q(-c[15], c[15], -c[8], c[8]) * t277;
        const Q t279 = t276 + t278;
        const Q t280 = joined(t273, t274);
        const Q t281 = Q(c[29], c[29], c[9], c[9]) * t280;
        const Q t282 = shuffled<1, 0, 3, 2>(t280);
        const Q t283 = Q(-c[30], c[30], -c[10], c[10]) * t282;
        const Q t284 = t281 + t283;
        // spectrum block of 7
        const Q t285 = c[5] * t186;
        const Q t286 = c[6] * t190;
        const Q t287 = t285 - t286;
        const Q t288 = c[4] * t195;
        const Q t289 = t287 + t288;
        const V t290 = part<1>(t210);
        // spectrum block of 7
        const V t291 = t228 + t290;
        io.out(35, t291);
        const P t292 = part<0>(t279);
        const P t293 = part<1>(t279);
        const P t294 = shuffled<0, 2>(t292, t293);
        const P t295 = part<0>(t284);
        const P t296 = part<1>(t284);
        const P t297 = shuffled<0, 2>(t295, t296);
        const Q t298 = joined(t294, t297);
        // spectrum block of 7
        const Q t299 = t265 + t298;
        const P t300 = joined(t222, t230);
        const Q t301 = joined(t201, t300);
        // spectrum block of 7
        const Q t302 = t301 - t206;
        const P t303 = part<0>(t302);
        const V t304 = part<1>(t303);
        io.out(7, t304);
        const P t305 = part<1>(t302);
        const V t306 = part<0>(t305);
        io.out(12, t306);
        const V t307 = part<1>(t305);
        io.out(13, t307);
        const P t308 = part<1>(t177);
        // spectrum block of 7
        const P t309 = t224 - t308;
        const P t310 = joined(t180, t228);
        const Q t311 = joined(t310, t309);
        // spectrum block of 7
        const Q t312 = t311 - t197;
        const P t313 = part<0>(t312);
        const V t314 = part<1>(t313);
        io.out(14, t314);
        const P t315 = part<1>(t312);
        const V t316 = part<0>(t315);
        io.out(19, t316);
        const V t317 = part<1>(t315);
        io.out(20, t317);
        const Q t318 = -c[1] * t132;
        const Q t319 = t226 + t318;
        const Q t320 = t319 - t289;
        const P t321 = part<0>(t320);
        const V t322 = part<1>(t321);
        io.out(21, t322);
        const P t323 = part<1>(t320);
        const V t324 = part<0>(t323);
        io.out(26, t324);
        const V t325 = part<1>(t323);
        io.out(27, t325);
        const Q t326 = t319 + t289;
        const P t327 = part<0>(t326);
        const V t328 = part<1>(t327);
        io.out(28, t328);
        const P t329 = part<1>(t326);
        const V t330 = part<0>(t329);
        io.out(33, t330);
        const V t331 = part<1>(t329);
        io.out(34, t331);
        const Q t332 = shuffled<0, 4, 2, 6>(t302, t312);
        const Q t333 = shuffled<0, 4, 2, 6>(t320, t326);
        const Q t334 = shuffled<0, 1, 4, 5>(t332, t333);
        // spectrum block of 7
        const Q t335 = c[1] * t257;
        const Q t336 = t334 - t335;
        const Q t337 = c[2] * t257;
        const Q t338 = t334 - t337;
        const Q t339 = c[2] * t298;
        const Q t340 = t268 - t339;
        const P t341 = shuffled<1, 3>(t251, t252);
        const P t342 = shuffled<1, 3>(t254, t255);
        const Q t343 = joined(t341, t342);
        const Q t344 = c[6] * t343;
        const P t345 = shuffled<1, 3>(t258, t259);
        const P t346 = shuffled<1, 3>(t261, t262);
        const Q t347 = joined(t345, t346);
        const Q t348 = c[4] * t347;
        const Q t349 = t344 + t348;
        const P t350 = shuffled<1, 3>(t292, t293);
        const P t351 = shuffled<1, 3>(t295, t296);
        const Q t352 = joined(t350, t351);
        const Q t353 = c[5] * t352;
        const Q t354 = t349 + t353;
        const Q t355 = c[4] * t343;
        const Q t356 = c[5] * t347;
        const Q t357 = t355 - t356;
        const Q t358 = c[6] * t352;
        const Q t359 = t357 - t358;
        const Q t360 = c[5] * t343;
        const Q t361 = c[6] * t347;
        const Q t362 = t360 - t361;
        const Q t363 = c[4] * t352;
        const Q t364 = t362 + t363;
        const Q t365 = t299 + t334;
        io.out(1, 2, 3, 4, t365);
        const Q t366 = t340 + t334;
        const Q t367 = t366 - t354;
        io.out(8, 9, 10, 11, t367);
        const Q t368 = t366 + t354;
        io.out(43, 44, 45, 46, t368);
        const Q t369 = c[2] * t264;
        const Q t370 = t336 - t369;
        const Q t371 = c[3] * t298;
        const Q t372 = t370 + t371;
        const Q t373 = t372 - t359;
        io.out(15, 16, 17, 18, t373);
        const Q t374 = t372 + t359;
        io.out(36, 37, 38, 39, t374);
        const Q t375 = c[3] * t264;
        const Q t376 = t338 + t375;
        const Q t377 = c[1] * t298;
        const Q t378 = t376 - t377;
        const Q t379 = t378 - t364;
        io.out(22, 23, 24, 25, t379);
        const Q t380 = t378 + t364;
        io.out(29, 30, 31, 32, t380);
        const P t381 = part<1>(t197);
        // spectrum block of 7
        const P t382 = t309 + t381;
        io.out(40, 41, t382);
        const P t383 = part<1>(t133);
        const P t384 = t383 + t214;
        io.out(5, 6, t384);
        const P t385 = part<1>(t206);
        const P t386 = t300 + t385;
        io.out(47, 48, t386);
        const V t387 = part<1>(t134);
        // spectrum block of 7
        const V t388 = t387 + t136;
        io.out(0, t388);
    }
};

}  // namespace zulg
