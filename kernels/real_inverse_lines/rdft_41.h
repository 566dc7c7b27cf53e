// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 41.
// Inverse DFT to 41 real points, Rader 5, 8; up to four lanes to a register.
// 93 sums, 52 differences, 86 products of registers, which do the 767 steps of the graph, those with
// `scale` included; 149 shuffles, 42 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<41> {
    static constexpr int steps = 767;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 4/5
        0.8090169943749475,  // c[2]: -cos 2 pi 12/5
        0.5877852522924731,  // c[3]: sin 2 pi 12/5
        0.9510565162951535,  // c[4]: -sin 2 pi 4/5
        0.7071067811865476,  // c[5]: cos 2 pi 1/8
        0.9876883405951378,  // c[6]: cos 2 pi 1/40
        0.8910065241883679,  // c[7]: cos 2 pi 3/40
        0.15643446504023087,  // c[8]: sin 2 pi 1/40
        0.4539904997395468,  // c[9]: sin 2 pi 3/40
        0.3074744781243565,  // c[10]: Q[8] of 41
        0.04161199958857812,  // c[11]: Q[4] of 41
        0.08921572340206974,  // c[12]: P[8] of 41
        0.3174404534558256,  // c[13]: P[4] of 41
        0.3186016615741431,  // c[14]: P[16] of 41
        0.2710001778953512,  // c[15]: -P[12] of 41
        0.03151160488130023,  // c[16]: Q[16] of 41
        0.17046672279564715,  // c[17]: -Q[12] of 41
        0.08656031809698493,  // c[18]: P[3] of 41
        0.30823256046522535,  // c[19]: -Q[3] of 41
        0.3116869402744416,  // c[20]: -P[11] of 41
        0.2933028207344136,  // c[21]: -Q[5] of 41
        0.0731522471449556,  // c[22]: Q[11] of 41
        0.12834895928380738,  // c[23]: P[5] of 41
        0.17218367347358104,  // c[24]: P[19] of 41
        0.16968041280638677,  // c[25]: P[13] of 41
        0.26991254618698857,  // c[26]: Q[19] of 41
        0.27149319974882274,  // c[27]: -Q[13] of 41
        0.11219636857220389,  // c[28]: Q[2] of 41
        0.026176684051836208,  // c[29]: P[7] of 41
        0.29985325557547343,  // c[30]: P[2] of 41
        0.31908428543576123,  // c[31]: Q[7] of 41
        0.24179459418352547,  // c[32]: -Q[18] of 41
        0.21192383863816136,  // c[33]: Q[17] of 41
        0.20984607269049432,  // c[34]: -P[18] of 41
        0.2399755958777195,  // c[35]: -P[17] of 41
        0.017504129545828598,  // c[36]: -Q[6] of 41
        0.3155360928303509,  // c[37]: P[9] of 41
        0.31967734584865853,  // c[38]: P[6] of 41
        0.05419385685994486,  // c[39]: Q[9] of 41
        0.30566398933844086,  // c[40]: Q[14] of 41
        0.2620989421184033,  // c[41]: P[1] of 41
        0.09523405704741086,  // c[42]: P[14] of 41
        0.1838590344269595,  // c[43]: -Q[1] of 41
        0.10597392847320843,  // c[44]: -P[10] of 41
        0.024028443109264917,  // c[45]: -Q[15] of 41
        0.30210846807720454,  // c[46]: -Q[10] of 41
        0.3192532441835867,  // c[47]: -P[15] of 41
        0.025,  // c[48]: 1/40
        0.16007810593582122,  // c[49]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const Q x16_19 = io.pairs(16, 19);
        // doubled bins
        const Q t0 = c[0] * x16_19;
        const P t1 = part<0>(t0);
        const P t2 = part<1>(t0);
        const P t3 = shuffled<0, 2>(t1, t2);
        const Q x20_7 = io.pairs(20, 7);
        const Q t4 = c[0] * x20_7;
        const P t5 = part<0>(t4);
        const P t6 = part<1>(t4);
        const P t7 = shuffled<0, 2>(t5, t6);
        const Q t8 = joined(t3, t7);
        const Q x18_6 = io.pairs(18, 6);
        const Q t9 = c[0] * x18_6;
        const P t10 = part<0>(t9);
        const P t11 = part<1>(t9);
        const P t12 = shuffled<0, 2>(t10, t11);
        const Q x2_13 = io.pairs(2, 13);
        const Q t13 = c[0] * x2_13;
        const P t14 = part<0>(t13);
        const P t15 = part<1>(t13);
        const P t16 = shuffled<0, 2>(t14, t15);
        const Q t17 = joined(t12, t16);
        // real block of 5, multiplier 4
        const Q t18 = t8 + t17;
        const Q x4_15 = io.pairs(4, 15);
        // doubled bins
        const Q t19 = c[0] * x4_15;
        const P t20 = part<0>(t19);
        const P t21 = part<1>(t19);
        const P t22 = shuffled<0, 2>(t20, t21);
        const Q x5_12 = io.pairs(5, 12);
        const Q t23 = c[0] * x5_12;
        const P t24 = part<0>(t23);
        const P t25 = part<1>(t23);
        const P t26 = shuffled<0, 2>(t24, t25);
        const Q t27 = joined(t22, t26);
        const Q x10_17 = io.pairs(10, 17);
        const Q t28 = c[0] * x10_17;
        const P t29 = part<0>(t28);
        const P t30 = part<1>(t28);
        const P t31 = shuffled<0, 2>(t29, t30);
        const Q x8_11 = io.pairs(8, 11);
        const Q t32 = c[0] * x8_11;
        const P t33 = part<0>(t32);
        const P t34 = part<1>(t32);
        const P t35 = shuffled<0, 2>(t33, t34);
        const Q t36 = joined(t31, t35);
        // real block of 5, multiplier 4
        const Q t37 = t27 + t36;
        const Q x1_14 = io.pairs(1, 14);
        // doubled bins
        const Q t38 = c[0] * x1_14;
        const P t39 = part<1>(t38);
        const P t40 = shuffled<1, 3>(t1, t39);
        const P t41 = shuffled<1, 3>(t14, t25);
        const Q t42 = joined(t40, t41);
        const P t43 = shuffled<1, 3>(t10, t21);
        const P t44 = flipped<1, 0>(t43);
        const P t45 = shuffled<1, 3>(t33, t6);
        const Q t46 = joined(t44, t45);
        // real block of 5
        const Q t47 = t42 - t46;
        const Q t48 = t42 + t46;
        const P t49 = shuffled<1, 3>(t29, t30);
        const Q x9_3 = io.pairs(9, 3);
        // doubled bins
        const Q t50 = c[0] * x9_3;
        const P t51 = part<1>(t50);
        const P t52 = shuffled<1, 3>(t5, t51);
        const Q t53 = joined(t49, t52);
        const P t54 = shuffled<1, 3>(t20, t2);
        const P t55 = flipped<1, 0>(t54);
        const P t56 = part<0>(t50);
        const P t57 = shuffled<1, 3>(t56, t15);
        const P t58 = flipped<1, 0>(t57);
        const Q t59 = joined(t55, t58);
        // real block of 5
        const Q t60 = t53 + t59;
        const Q t61 = flipped<1, 1, 1, 0>(t59);
        const Q t62 = flipped<0, 0, 0, 1>(t53);
        const Q t63 = t61 + t62;
        // real block of 5, multiplier 4
        const Q t64 = t8 - t17;
        const Q t65 = t27 - t36;
        const Q t66 = t18 + t37;
        const Q t67 = c[1] * t18;
        const Q t68 = c[2] * t37;
        const Q t69 = t67 - t68;
        const P t70 = part<0>(t38);
        const P t71 = shuffled<0, 2>(t70, t39);
        const P t72 = shuffled<0, 2>(t56, t51);
        const Q t73 = joined(t71, t72);
        const Q t74 = c[2] * t18;
        const Q t75 = t73 - t74;
        const Q t76 = flipped<0, 0, 0, 1>(t60);
        // real block of 5
        const Q t77 = t47 + t76;
        const P t78 = shuffled<1, 3>(t70, t11);
        const P t79 = shuffled<1, 3>(t24, t34);
        const P t80 = flipped<1, 0>(t79);
        const Q t81 = joined(t78, t80);
        const Q t82 = t77 + t81;
        const Q t83 = c[1] * t47;
        const Q t84 = Q(c[2], c[2], c[2], -c[2]) * t60;
        const Q t85 = t83 - t84;
        const Q t86 = t85 + t81;
        const Q t87 = c[3] * t63;
        const Q t88 = Q(-c[4], c[4], c[4], c[4]) * t48;
        const Q t89 = t87 - t88;
        const Q t90 = flipped<0, 0, 1, 0>(t81);
        const Q t91 = Q(c[2], c[2], -c[2], c[2]) * t47;
        const Q t92 = t90 - t91;
        const Q t93 = flipped<0, 0, 1, 0>(t92);
        const Q t94 = Q(c[1], c[1], c[1], -c[1]) * t60;
        const Q t95 = t93 + t94;
        const Q t96 = Q(-c[3], c[3], c[3], c[3]) * t48;
        const Q t97 = c[4] * t63;
        const Q t98 = t96 + t97;
        // real block of 5, multiplier 4
        const Q t99 = t66 + t73;
        const P t100 = part<0>(t99);
        const P t101 = part<1>(t99);
        // real block of 2
        const P t102 = t100 + t101;
        const P t103 = t100 - t101;
        // real block of 5, multiplier 4
        const Q t104 = t69 + t73;
        const Q t105 = c[4] * t64;
        const Q t106 = c[3] * t65;
        const Q t107 = t105 - t106;
        const Q t108 = c[1] * t37;
        const Q t109 = t75 + t108;
        const Q t110 = c[3] * t64;
        const Q t111 = c[4] * t65;
        const Q t112 = t110 + t111;
        const Q t113 = shuffled<0, 4, 2, 6>(t104, t107);
        const Q t114 = shuffled<0, 4, 2, 6>(t109, t112);
        const Q t115 = shuffled<0, 1, 4, 5>(t113, t114);
        const Q t116 = shuffled<2, 3, 6, 7>(t113, t114);
        // complex block of 2
        const Q t117 = t115 + t116;
        const Q t118 = t115 - t116;
        const Q t119 = shuffled<1, 5, 3, 7>(t104, t107);
        const Q t120 = shuffled<1, 5, 3, 7>(t109, t112);
        const Q t121 = shuffled<0, 1, 4, 5>(t119, t120);
        const Q t122 = shuffled<2, 3, 6, 7>(t119, t120);
        // complex block of 2
        const Q t123 = t121 + t122;
        const Q t124 = t121 - t122;
        const Q t125 = shuffled<1, 5, 3, 7>(t95, t98);
        const Q t126 = shuffled<1, 5, 3, 7>(t86, t89);
        const Q t127 = shuffled<0, 1, 4, 5>(t125, t126);
        // skew block of 20
        const Q t128 = Q(c[6], c[6], c[7], c[7]) * t127;
        const Q t129 = shuffled<1, 0, 3, 2>(t127);
        const Q t130 = Q(c[8], -c[8], -c[9], c[9]) * t129;
        const Q t131 = t128 + t130;
        const Q t132 = shuffled<2, 3, 6, 7>(t125, t126);
        const Q t133 = Q(c[7], c[7], c[8], c[8]) * t132;
        const Q t134 = shuffled<1, 0, 3, 2>(t132);
        const Q t135 = Q(c[9], -c[9], -c[6], c[6]) * t134;
        const Q t136 = t133 + t135;
        // complex block of 2
        const Q t137 = t131 + t136;
        const Q t138 = flipped<0, 0, 0, 1>(t131);
        const Q t139 = flipped<0, 0, 0, 1>(t136);
        const Q t140 = t138 - t139;
        const Q t141 = shuffled<0, 4, 2, 6>(t95, t98);
        const Q t142 = shuffled<0, 4, 2, 6>(t86, t89);
        const Q t143 = shuffled<2, 3, 6, 7>(t141, t142);
        // skew block of 20
        const Q t144 = Q(c[4], c[4], c[3], c[3]) * t143;
        const Q t145 = shuffled<1, 0, 3, 2>(t143);
        const Q t146 = Q(c[1], -c[1], -c[2], c[2]) * t145;
        const Q t147 = t144 + t146;
        const Q t148 = shuffled<0, 1, 4, 5>(t147, t142);
        const Q t149 = shuffled<0, 1, 6, 7>(t141, t147);
        const Q t150 = flipped<0, 1, 0, 1>(t149);
        // complex block of 2
        const Q t151 = t148 + t150;
        const Q t152 = flipped<1, 0, 0, 0>(t148);
        const Q t153 = flipped<0, 1, 1, 1>(t150);
        const Q t154 = t152 + t153;
        const P t155 = part<0>(t82);
        const V t156 = part<1>(t155);
        const P t157 = part<1>(t82);
        const V t158 = part<1>(t157);
        // skew block of 4
        const V t159 = t156 - t158;
        const V t160 = t156 + t158;
        const V t161 = part<0>(t102);
        const V t162 = part<1>(t102);
        // real block of 2
        const V t163 = t161 + t162;
        const V t164 = t161 - t162;
        // complex block of 2
        const Q t165 = t117 + t123;
        const Q t166 = t117 - t123;
        const Q t167 = shuffled<1, 0, 3, 2>(t124);
        const Q t168 = flipped<0, 1, 0, 1>(t167);
        // complex block of 2
        const Q t169 = t118 + t168;
        const Q t170 = flipped<0, 0, 0, 1>(t137);
        // complex block of 2
        const Q t171 = t151 + t170;
        const Q t172 = t151 - t170;
        const Q t173 = shuffled<1, 0, 3, 2>(t140);
        const Q t174 = flipped<0, 0, 0, 1>(t173);
        // complex block of 2
        const Q t175 = t154 + t174;
        const V t176 = part<0>(t155);
        // skew block of 4
        const V t177 = c[5] * t159;
        const V t178 = t176 + t177;
        const V t179 = part<0>(t157);
        const V t180 = c[5] * t160;
        const V t181 = t179 + t180;
        // complex block of 2
        const Q t182 = t118 - t168;
        const Q t183 = flipped<0, 1, 0, 0>(t154);
        const Q t184 = flipped<1, 0, 1, 1>(t174);
        // complex block of 2
        const Q t185 = t183 + t184;
        // skew block of 4
        const V t186 = t180 - t179;
        const V t187 = t176 - t177;
        const V x0r = io.re(0);
        // spectrum block of 41
        const V t188 = c[48] * t163;
        const V t189 = x0r - t188;
        const Q t190 = shuffled<0, 1, 6, 7>(t165, t166);
        const Q t191 = shuffled<1, 0, 3, 2>(t190);
        const Q t192 = Q(-c[10], c[10], c[11], c[11]) * t191;
        const Q t193 = Q(c[12], c[12], c[13], -c[13]) * t190;
        const Q t194 = t192 + t193;
        const Q t195 = shuffled<2, 3, 4, 5>(t165, t166);
        const Q t196 = Q(c[14], c[14], c[15], c[15]) * t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t195);
        const Q t198 = Q(-c[16], c[16], c[17], -c[17]) * t197;
        const Q t199 = t196 + t198;
        const P t200 = part<0>(t194);
        const P t201 = part<1>(t194);
        const P t202 = shuffled<0, 2>(t200, t201);
        const P t203 = part<0>(t199);
        const P t204 = part<1>(t199);
        const P t205 = shuffled<0, 2>(t203, t204);
        const P t206 = flipped<0, 1>(t205);
        // spectrum block of 5, multiplier 3
        const P t207 = t202 + t206;
        const P t208 = shuffled<0, 3>(t202, t205);
        const P t209 = c[1] * t208;
        const V t210 = part<0>(t209);
        const V t211 = part<0>(t206);
        const V t212 = c[2] * t211;
        const V t213 = t210 - t212;
        // spectrum block of 41
        const V t214 = c[49] * t164;
        const V t215 = part<1>(t209);
        // spectrum block of 5, multiplier 3
        const V t216 = t214 - t215;
        const P t217 = joined(t213, t216);
        const V t218 = part<0>(t201);
        const V t219 = -c[2] * t218;
        const P t220 = joined(t189, t219);
        // spectrum block of 5, multiplier 3
        const P t221 = t217 + t220;
        const P t222 = c[2] * t208;
        const V t223 = part<0>(t222);
        const V t224 = t189 - t223;
        const V t225 = part<1>(t222);
        // spectrum block of 5, multiplier 3
        const V t226 = c[1] * t218;
        const V t227 = t225 + t226;
        const P t228 = joined(t224, t227);
        // spectrum block of 5, multiplier 3
        const V t229 = c[1] * t211;
        const P t230 = joined(t229, t214);
        const P t231 = t228 + t230;
        const P t232 = shuffled<0, 3>(t220, t230);
        const P t233 = t207 + t232;
        const P t234 = shuffled<1, 3>(t200, t204);
        const P t235 = c[4] * t234;
        const P t236 = shuffled<1, 3>(t203, t201);
        const P t237 = c[3] * t236;
        const P t238 = t235 + t237;
        const P t239 = P(-c[4], c[4]) * t236;
        const P t240 = P(c[3], -c[3]) * t234;
        const P t241 = t239 + t240;
        const P t242 = part<1>(t171);
        const P t243 = shuffled<1, 0>(t242);
        // spectrum block of 41
        const P t244 = c[18] * t243;
        const P t245 = P(c[19], -c[19]) * t242;
        const P t246 = t244 + t245;
        const P t247 = part<0>(t175);
        const P t248 = shuffled<1, 0>(t247);
        const P t249 = joined(t178, t181);
        const Q t250 = joined(t248, t249);
        const Q t251 = Q(-c[20], c[20], -c[21], c[21]) * t250;
        const Q t252 = shuffled<1, 0, 3, 2>(t250);
        const Q t253 = Q(c[22], c[22], c[23], c[23]) * t252;
        const Q t254 = t251 + t253;
        const Q t255 = shuffled<0, 1, 6, 7>(t172, t175);
        const Q t256 = shuffled<1, 0, 3, 2>(t255);
        const Q t257 = Q(c[24], c[24], c[25], c[25]) * t256;
        const Q t258 = Q(c[26], -c[26], c[27], -c[27]) * t255;
        const Q t259 = t257 + t258;
        const P t260 = part<1>(t259);
        const P t261 = flipped<0, 1>(t246);
        // complex block of 5, multiplier 3
        const P t262 = t260 + t261;
        const P t263 = part<0>(t254);
        const P t264 = part<0>(t259);
        const P t265 = flipped<0, 1>(t264);
        const P t266 = t263 + t265;
        const P t267 = flipped<1, 0>(t260);
        const P t268 = t267 + t246;
        const P t269 = t263 - t265;
        const P t270 = flipped<1, 0>(t262);
        const P t271 = t270 + t266;
        const P t272 = part<1>(t254);
        const P t273 = t271 + t272;
        const P t274 = c[1] * t262;
        const V t275 = part<1>(t274);
        const P t276 = c[2] * t266;
        const V t277 = part<1>(t276);
        const V t278 = t275 - t277;
        const V t279 = part<0>(t272);
        const V t280 = part<0>(t274);
        const V t281 = t279 - t280;
        const P t282 = joined(t281, t278);
        const P t283 = shuffled<0, 3>(t276, t272);
        const P t284 = flipped<1, 0>(t283);
        const P t285 = t282 + t284;
        const P t286 = c[4] * t268;
        const P t287 = c[3] * t269;
        const P t288 = t286 - t287;
        const V t289 = part<1>(t284);
        const P t290 = c[2] * t262;
        const V t291 = part<1>(t290);
        const V t292 = t289 - t291;
        const V t293 = part<0>(t290);
        const P t294 = c[1] * t266;
        const V t295 = part<0>(t294);
        const V t296 = t293 + t295;
        const P t297 = joined(t296, t292);
        const P t298 = shuffled<0, 3>(t272, t294);
        const P t299 = t297 + t298;
        const P t300 = c[3] * t268;
        const P t301 = c[4] * t269;
        const P t302 = t300 + t301;
        const Q t303 = shuffled<0, 1, 6, 7>(t182, t185);
        const Q t304 = shuffled<1, 0, 3, 2>(t303);
        // spectrum block of 41
        const Q t305 = Q(c[28], c[28], c[29], c[29]) * t304;
        const Q t306 = Q(c[30], -c[30], c[31], -c[31]) * t303;
        const Q t307 = t305 + t306;
        const Q t308 = shuffled<1, 0, 3, 2>(t169);
        const Q t309 = shuffled<0, 1, 6, 7>(t308, t172);
        const Q t310 = Q(c[32], c[32], c[33], c[33]) * t309;
        const Q t311 = shuffled<1, 0, 3, 2>(t309);
        const Q t312 = Q(-c[34], c[34], -c[35], c[35]) * t311;
        const Q t313 = t310 + t312;
        const Q t314 = flipped<0, 1, 0, 0>(t313);
        // complex block of 5, multiplier 3
        const Q t315 = t314 + t307;
        const Q t316 = flipped<0, 1, 0, 0>(t307);
        const Q t317 = t313 - t316;
        const Q t318 = shuffled<2, 3, 4, 5>(t182, t185);
        const Q t319 = shuffled<1, 0, 3, 2>(t318);
        // spectrum block of 41
        const Q t320 = Q(c[36], -c[36], c[37], c[37]) * t319;
        const Q t321 = Q(c[38], c[38], c[39], -c[39]) * t318;
        const Q t322 = t320 + t321;
        const Q t323 = shuffled<1, 0, 3, 2>(t171);
        const Q t324 = shuffled<2, 3, 4, 5>(t308, t323);
        const Q t325 = Q(c[40], c[40], c[41], c[41]) * t324;
        const Q t326 = shuffled<1, 0, 3, 2>(t324);
        const Q t327 = Q(c[42], -c[42], c[43], -c[43]) * t326;
        const Q t328 = t325 + t327;
        const Q t329 = flipped<0, 0, 1, 0>(t328);
        // complex block of 5, multiplier 3
        const Q t330 = t329 + t322;
        const Q t331 = flipped<0, 1, 0, 0>(t322);
        const Q t332 = flipped<1, 0, 1, 1>(t329);
        const Q t333 = t331 + t332;
        const P t334 = joined(t187, t186);
        const Q t335 = joined(t103, t334);
        // spectrum block of 41
        const Q t336 = Q(c[44], c[44], c[45], c[45]) * t335;
        const Q t337 = shuffled<1, 0, 3, 2>(t335);
        const Q t338 = Q(c[46], -c[46], c[47], -c[47]) * t337;
        const Q t339 = t336 + t338;
        const Q t340 = flipped<0, 1, 0, 1>(t330);
        // complex block of 5, multiplier 3
        const Q t341 = t315 + t340;
        const Q t342 = flipped<1, 0, 1, 0>(t339);
        const Q t343 = t341 + t342;
        const Q t344 = c[1] * t315;
        const Q t345 = Q(-c[2], c[2], -c[2], c[2]) * t330;
        const Q t346 = t344 + t345;
        const Q t347 = t346 + t342;
        const Q t348 = c[4] * t317;
        const Q t349 = Q(-c[3], c[3], c[3], -c[3]) * t333;
        const Q t350 = t348 + t349;
        const Q t351 = Q(c[2], -c[2], c[2], -c[2]) * t315;
        const Q t352 = t339 + t351;
        const Q t353 = flipped<1, 0, 1, 0>(t352);
        const Q t354 = Q(c[1], -c[1], c[1], -c[1]) * t330;
        const Q t355 = t353 + t354;
        const Q t356 = Q(c[3], -c[3], c[3], c[3]) * t317;
        const Q t357 = Q(c[4], c[4], -c[4], c[4]) * t333;
        const Q t358 = t356 + t357;
        const P t359 = shuffled<1, 0>(t288);
        const P t360 = flipped<1, 0>(t359);
        // complex block of 5, multiplier 3
        const P t361 = t285 + t360;
        const P t362 = t285 - t360;
        const P t363 = shuffled<1, 0>(t302);
        const P t364 = flipped<0, 1>(t363);
        const P t365 = t299 + t364;
        const Q t366 = shuffled<1, 0, 3, 2>(t350);
        const Q t367 = flipped<0, 0, 1, 0>(t366);
        // complex block of 5, multiplier 3
        const Q t368 = t347 + t367;
        const Q t369 = t347 - t367;
        const Q t370 = shuffled<1, 0, 3, 2>(t358);
        const Q t371 = flipped<0, 1, 0, 1>(t370);
        const Q t372 = t355 + t371;
        const Q t373 = shuffled<0, 4, 2, 6>(t343, t372);
        const Q t374 = shuffled<0, 4, 2, 6>(t368, t369);
        const Q t375 = shuffled<2, 3, 6, 7>(t373, t374);
        const P t376 = shuffled<0, 2>(t273, t365);
        const P t377 = shuffled<0, 2>(t361, t362);
        const Q t378 = joined(t376, t377);
        // mirrored skew block of 4, multiplier 5
        const Q t379 = t375 - t378;
        const Q t380 = shuffled<1, 5, 3, 7>(t343, t372);
        const Q t381 = shuffled<1, 5, 3, 7>(t368, t369);
        const Q t382 = shuffled<2, 3, 6, 7>(t380, t381);
        const P t383 = shuffled<1, 3>(t273, t365);
        const P t384 = shuffled<1, 3>(t361, t362);
        const Q t385 = joined(t383, t384);
        const Q t386 = t382 + t385;
        const Q t387 = t375 + t378;
        const Q t388 = t385 - t382;
        const P t389 = flipped<1, 0>(t238);
        // spectrum block of 5, multiplier 3
        const P t390 = t221 + t389;
        const P t391 = t221 - t389;
        const P t392 = t231 + t241;
        const P t393 = shuffled<0, 2>(t233, t392);
        const P t394 = shuffled<0, 2>(t390, t391);
        const Q t395 = joined(t393, t394);
        const P t396 = shuffled<1, 3>(t233, t392);
        const P t397 = shuffled<1, 3>(t390, t391);
        const Q t398 = joined(t396, t397);
        // spectrum block of 2
        const Q t399 = t395 + t398;
        const Q t400 = t395 - t398;
        const Q t401 = shuffled<0, 1, 4, 5>(t373, t374);
        // spectrum block of 2
        const Q t402 = t399 + t401;
        // spectrum block of 2
        const Q t403 = t402 + t387;
        io.out(1, 37, 16, 18, t403);
        const Q t404 = t402 - t387;
        io.out(40, 4, 25, 23, t404);
        // spectrum block of 2
        const Q t405 = t399 - t401;
        // spectrum block of 2
        const Q t406 = t405 - t388;
        io.out(9, 5, 21, 39, t406);
        const Q t407 = t405 + t388;
        io.out(32, 36, 20, 2, t407);
        const Q t408 = shuffled<0, 1, 4, 5>(t380, t381);
        // spectrum block of 2
        const Q t409 = t400 - t408;
        // mirrored skew block of 4, multiplier 5
        const Q t410 = c[5] * t379;
        const Q t411 = c[5] * t386;
        const Q t412 = t410 + t411;
        // spectrum block of 2
        const Q t413 = t409 + t412;
        io.out(38, 12, 34, 28, t413);
        const Q t414 = t409 - t412;
        io.out(3, 29, 7, 13, t414);
        // spectrum block of 2
        const Q t415 = t400 + t408;
        // mirrored skew block of 4, multiplier 5
        const Q t416 = t410 - t411;
        // spectrum block of 2
        const Q t417 = t415 - t416;
        io.out(14, 26, 19, 6, t417);
        const Q t418 = t415 + t416;
        io.out(27, 15, 22, 35, t418);
        // complex block of 5, multiplier 3
        const P t419 = t299 - t364;
        // complex block of 5, multiplier 3
        const Q t420 = t355 - t371;
        const P t421 = part<1>(t420);
        const V t422 = part<0>(t421);
        const V t423 = part<0>(t419);
        // mirrored skew block of 4, multiplier 5
        const V t424 = t422 - t423;
        const V t425 = part<1>(t421);
        const V t426 = part<1>(t419);
        const V t427 = t425 + t426;
        const V t428 = t422 + t423;
        const V t429 = t426 - t425;
        // spectrum block of 5, multiplier 3
        const P t430 = t231 - t241;
        const V t431 = part<0>(t430);
        const V t432 = part<1>(t430);
        // spectrum block of 2
        const V t433 = t431 + t432;
        const V t434 = t431 - t432;
        const P t435 = joined(t433, t434);
        const P t436 = part<0>(t420);
        const P t437 = flipped<0, 1>(t436);
        // spectrum block of 2
        const P t438 = t435 + t437;
        const P t439 = t435 - t437;
        // mirrored skew block of 4, multiplier 5
        const V t440 = c[5] * t424;
        const V t441 = c[5] * t427;
        const V t442 = t440 + t441;
        const V t443 = t440 - t441;
        const P t444 = joined(t428, t442);
        const Q t445 = joined(t444, t439);
        const P t446 = flipped<1, 1>(t438);
        const P t447 = joined(t429, t443);
        const Q t448 = joined(t446, t447);
        // spectrum block of 2
        const Q t449 = t445 - t448;
        io.out(10, 11, 8, 17, t449);
        const Q t450 = flipped<1, 1, 0, 0>(t445);
        const Q t451 = flipped<1, 1, 0, 0>(t448);
        const Q t452 = t450 + t451;
        io.out(31, 30, 33, 24, t452);
        // spectrum block of 41
        const V t453 = x0r + t163;
        io.out(0, t453);
    }
};

}  // namespace zulg
