// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 41.
// Forward DFT of 41 real points, Rader 5, 8; up to four lanes to a register.
// 92 sums, 55 differences, 80 products of registers, which do the 727 steps of the graph, those with
// `scale` included; 162 shuffles, 25 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<41> {
    static constexpr int steps = 727;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
        0.9876883405951378,  // c[5]: cos 2 pi 39/40
        0.15643446504023087,  // c[6]: -sin 2 pi 39/40
        0.8910065241883679,  // c[7]: cos 2 pi 37/40
        0.4539904997395468,  // c[8]: -sin 2 pi 37/40
        0.3074744781243565,  // c[9]: Q[8] of 41
        0.04161199958857812,  // c[10]: Q[4] of 41
        0.08921572340206974,  // c[11]: P[8] of 41
        0.3174404534558256,  // c[12]: P[4] of 41
        0.3186016615741431,  // c[13]: P[16] of 41
        0.2710001778953512,  // c[14]: -P[12] of 41
        0.03151160488130023,  // c[15]: Q[16] of 41
        0.17046672279564715,  // c[16]: -Q[12] of 41
        0.11219636857220389,  // c[17]: Q[2] of 41
        0.29985325557547343,  // c[18]: P[2] of 41
        0.017504129545828598,  // c[19]: -Q[6] of 41
        0.12834895928380738,  // c[20]: -P[5] of 41
        0.31967734584865853,  // c[21]: P[6] of 41
        0.2933028207344136,  // c[22]: -Q[5] of 41
        0.09523405704741086,  // c[23]: P[14] of 41
        0.10597392847320843,  // c[24]: -P[10] of 41
        0.30566398933844086,  // c[25]: Q[14] of 41
        0.30210846807720454,  // c[26]: -Q[10] of 41
        0.24179459418352547,  // c[27]: -Q[18] of 41
        0.3192532441835867,  // c[28]: P[15] of 41
        0.20984607269049432,  // c[29]: -P[18] of 41
        0.024028443109264917,  // c[30]: -Q[15] of 41
        0.2620989421184033,  // c[31]: -P[1] of 41
        0.08656031809698493,  // c[32]: -P[3] of 41
        0.1838590344269595,  // c[33]: -Q[1] of 41
        0.30823256046522535,  // c[34]: -Q[3] of 41
        0.17218367347358104,  // c[35]: -P[19] of 41
        0.21192383863816136,  // c[36]: Q[17] of 41
        0.26991254618698857,  // c[37]: Q[19] of 41
        0.2399755958777195,  // c[38]: P[17] of 41
        0.0731522471449556,  // c[39]: Q[11] of 41
        0.026176684051836208,  // c[40]: -P[7] of 41
        0.3116869402744416,  // c[41]: P[11] of 41
        0.31908428543576123,  // c[42]: Q[7] of 41
        0.3155360928303509,  // c[43]: -P[9] of 41
        0.16968041280638677,  // c[44]: -P[13] of 41
        0.05419385685994486,  // c[45]: Q[9] of 41
        0.27149319974882274,  // c[46]: -Q[13] of 41
        0.025,  // c[47]: 1/40
        0.16007810593582122,  // c[48]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x16_22_20_7 = io.in(16, 22, 20, 7);
        const Q x18_35_2_13 = io.in(18, 35, 2, 13);
        // real block of 5, multiplier 3
        const Q t0 = x16_22_20_7 + x18_35_2_13;
        const Q t1 = x16_22_20_7 - x18_35_2_13;
        const Q x10_24_33_30 = io.in(10, 24, 33, 30);
        const Q x37_15_36_29 = io.in(37, 15, 36, 29);
        const Q t2 = x10_24_33_30 + x37_15_36_29;
        const Q t3 = x10_24_33_30 - x37_15_36_29;
        const Q t4 = t2 + t0;
        const Q x1_27_32_3 = io.in(1, 27, 32, 3);
        const Q t5 = t4 + x1_27_32_3;
        const Q t6 = c[0] * t2;
        const Q t7 = x1_27_32_3 - t6;
        const Q t8 = c[1] * t0;
        const Q t9 = t7 + t8;
        const Q t10 = c[2] * t3;
        const Q t11 = c[3] * t1;
        const Q t12 = t10 + t11;
        const Q t13 = c[1] * t2;
        const Q t14 = c[0] * t0;
        const Q t15 = t13 - t14;
        const Q t16 = t15 + x1_27_32_3;
        const Q t17 = c[2] * t1;
        const Q t18 = c[3] * t3;
        const Q t19 = t17 - t18;
        const Q x31_17_8_11 = io.in(31, 17, 8, 11);
        const Q x4_26_5_12 = io.in(4, 26, 5, 12);
        // real block of 5, multiplier 3
        const Q t20 = x31_17_8_11 + x4_26_5_12;
        const Q t21 = x31_17_8_11 - x4_26_5_12;
        const Q x25_19_21_34 = io.in(25, 19, 21, 34);
        const Q x23_6_39_28 = io.in(23, 6, 39, 28);
        const Q t22 = x25_19_21_34 + x23_6_39_28;
        const Q t23 = x25_19_21_34 - x23_6_39_28;
        const Q t24 = t20 + t22;
        const Q x40_14_9_38 = io.in(40, 14, 9, 38);
        const Q t25 = t24 + x40_14_9_38;
        const Q t26 = c[0] * t20;
        const Q t27 = x40_14_9_38 - t26;
        const Q t28 = c[1] * t22;
        const Q t29 = t27 + t28;
        const Q t30 = c[2] * t21;
        const Q t31 = c[3] * t23;
        const Q t32 = t30 + t31;
        const Q t33 = c[1] * t20;
        const Q t34 = c[0] * t22;
        const Q t35 = t33 - t34;
        const Q t36 = t35 + x40_14_9_38;
        const Q t37 = c[2] * t23;
        const Q t38 = c[3] * t21;
        const Q t39 = t37 - t38;
        // real block of 2
        const Q t40 = t5 + t25;
        const P t41 = part<0>(t40);
        const P t42 = part<1>(t40);
        // real block of 2
        const P t43 = t41 + t42;
        const P t44 = t41 - t42;
        const V t45 = part<0>(t43);
        const V t46 = part<1>(t43);
        // real block of 2
        const V t47 = t45 + t46;
        const V t48 = t45 - t46;
        // real block of 2
        const Q t49 = t5 - t25;
        const P t50 = part<0>(t49);
        const V t51 = part<1>(t50);
        const P t52 = part<1>(t49);
        const V t53 = part<1>(t52);
        // skew block of 4, multiplier 5
        const V t54 = t51 - t53;
        const V t55 = t51 + t53;
        const V t56 = part<0>(t50);
        const V t57 = c[4] * t54;
        const V t58 = t56 + t57;
        const V t59 = t56 - t57;
        const V t60 = c[4] * t55;
        const V t61 = part<0>(t52);
        const V t62 = t60 - t61;
        const V t63 = t61 + t60;
        const Q t64 = shuffled<0, 4, 2, 6>(t9, t12);
        const Q t65 = shuffled<0, 4, 2, 6>(t16, t19);
        const Q t66 = shuffled<0, 1, 4, 5>(t64, t65);
        const Q t67 = shuffled<0, 4, 2, 6>(t29, t32);
        const Q t68 = shuffled<0, 4, 2, 6>(t36, t39);
        const Q t69 = shuffled<0, 1, 4, 5>(t67, t68);
        // complex block of 2
        const Q t70 = t66 + t69;
        const Q t71 = shuffled<2, 3, 6, 7>(t64, t65);
        const Q t72 = shuffled<2, 3, 6, 7>(t67, t68);
        // complex block of 2
        const Q t73 = t71 + t72;
        // complex block of 2
        const Q t74 = t70 + t73;
        const Q t75 = t70 - t73;
        const Q t76 = shuffled<1, 5, 3, 7>(t9, t12);
        const Q t77 = shuffled<1, 5, 3, 7>(t16, t19);
        const Q t78 = shuffled<0, 1, 4, 5>(t76, t77);
        const Q t79 = shuffled<1, 5, 3, 7>(t29, t32);
        const Q t80 = shuffled<1, 5, 3, 7>(t36, t39);
        const Q t81 = shuffled<0, 1, 4, 5>(t79, t80);
        // complex block of 2
        const Q t82 = t78 + t81;
        const Q t83 = shuffled<2, 3, 6, 7>(t76, t77);
        const Q t84 = shuffled<2, 3, 6, 7>(t79, t80);
        // complex block of 2
        const Q t85 = t83 + t84;
        // complex block of 2
        const Q t86 = t82 + t85;
        const Q t87 = t82 - t85;
        // complex block of 2
        const Q t88 = t74 + t86;
        const Q t89 = t74 - t86;
        const Q t90 = shuffled<1, 0, 3, 2>(t87);
        const Q t91 = flipped<0, 1, 0, 1>(t90);
        // complex block of 2
        const Q t92 = t75 + t91;
        const Q t93 = t75 - t91;
        // complex block of 2
        const Q t94 = t66 - t69;
        // complex block of 2
        const Q t95 = t71 - t72;
        const Q t96 = shuffled<1, 0, 3, 2>(t95);
        const Q t97 = flipped<0, 1, 0, 1>(t96);
        // complex block of 2
        const Q t98 = t94 + t97;
        const Q t99 = t94 - t97;
        // complex block of 2
        const Q t100 = t78 - t81;
        // complex block of 8, multiplier 5
        const Q t101 = c[4] * t100;
        const Q t102 = shuffled<1, 0, 3, 2>(t101);
        const Q t103 = flipped<0, 1, 0, 1>(t102);
        const Q t104 = t101 + t103;
        // complex block of 2
        const Q t105 = t83 - t84;
        // complex block of 8, multiplier 5
        const Q t106 = c[4] * t105;
        const Q t107 = shuffled<1, 0, 3, 2>(t106);
        const Q t108 = flipped<0, 1, 0, 1>(t107);
        const Q t109 = t106 + t108;
        const Q t110 = shuffled<1, 0, 3, 2>(t109);
        const Q t111 = flipped<0, 1, 0, 1>(t104);
        // complex block of 2
        const Q t112 = t110 + t111;
        const Q t113 = flipped<1, 0, 1, 0>(t112);
        // complex block of 2
        const Q t114 = t98 + t113;
        const Q t115 = t98 - t113;
        // complex block of 2
        const Q t116 = t110 - t111;
        const Q t117 = shuffled<1, 0, 3, 2>(t116);
        // complex block of 2
        const Q t118 = t99 - t117;
        const Q t119 = t99 + t117;
        const V x0 = io.in(0);
        // real block of 41
        const V t120 = x0 + t47;
        io.re(0, t120);
        const V t121 = c[47] * t47;
        const V t122 = x0 - t121;
        const Q t123 = shuffled<0, 1, 6, 7>(t88, t89);
        const Q t124 = shuffled<1, 0, 3, 2>(t123);
        const Q t125 = Q(-c[9], c[9], c[10], c[10]) * t124;
        const Q t126 = Q(c[11], c[11], c[12], -c[12]) * t123;
        const Q t127 = t125 + t126;
        const Q t128 = shuffled<2, 3, 4, 5>(t88, t89);
        const Q t129 = Q(c[13], c[13], c[14], c[14]) * t128;
        const Q t130 = shuffled<1, 0, 3, 2>(t128);
        const Q t131 = Q(-c[15], c[15], c[16], -c[16]) * t130;
        const Q t132 = t129 + t131;
        const P t133 = part<0>(t127);
        const P t134 = part<1>(t132);
        const P t135 = shuffled<0, 2>(t133, t134);
        // spectrum block of 5, multiplier 4
        const P t136 = c[1] * t135;
        const V t137 = part<0>(t136);
        const P t138 = part<0>(t132);
        const V t139 = part<0>(t138);
        const V t140 = c[0] * t139;
        const V t141 = t137 - t140;
        // real block of 41
        const V t142 = c[48] * t48;
        const V t143 = part<1>(t136);
        // spectrum block of 5, multiplier 4
        const V t144 = t142 - t143;
        // spectrum block of 5, multiplier 4
        const P t145 = c[0] * t135;
        const V t146 = part<0>(t145);
        const V t147 = t122 - t146;
        const V t148 = part<1>(t145);
        const P t149 = part<1>(t127);
        const V t150 = part<0>(t149);
        // spectrum block of 5, multiplier 4
        const V t151 = c[1] * t150;
        const V t152 = t148 + t151;
        const P t153 = shuffled<0, 2>(t138, t149);
        const P t154 = flipped<0, 1>(t135);
        // spectrum block of 5, multiplier 4
        const P t155 = t153 + t154;
        const P t156 = shuffled<1, 3>(t133, t134);
        const P t157 = c[3] * t156;
        const P t158 = shuffled<1, 3>(t138, t149);
        const P t159 = c[2] * t158;
        const P t160 = t157 + t159;
        const P t161 = P(-c[3], c[3]) * t158;
        const P t162 = P(c[2], -c[2]) * t156;
        const P t163 = t161 + t162;
        const P t164 = part<0>(t93);
        const P t165 = shuffled<1, 0>(t164);
        // real block of 41
        const P t166 = c[17] * t165;
        const P t167 = P(c[18], -c[18]) * t164;
        const P t168 = t166 + t167;
        const P t169 = part<1>(t93);
        const P t170 = shuffled<1, 0>(t169);
        const P t171 = joined(t59, t62);
        const Q t172 = joined(t170, t171);
        const Q t173 = Q(c[19], -c[19], -c[20], c[20]) * t172;
        const Q t174 = shuffled<1, 0, 3, 2>(t172);
        const Q t175 = Q(c[21], c[21], c[22], c[22]) * t174;
        const Q t176 = t173 + t175;
        const P t177 = part<1>(t92);
        const Q t178 = joined(t177, t44);
        const Q t179 = Q(c[23], -c[23], c[24], c[24]) * t178;
        const Q t180 = shuffled<1, 0, 3, 2>(t178);
        const Q t181 = Q(c[25], c[25], c[26], -c[26]) * t180;
        const Q t182 = t179 + t181;
        const P t183 = part<0>(t92);
        const P t184 = shuffled<1, 0>(t183);
        const P t185 = joined(t58, t63);
        const Q t186 = joined(t184, t185);
        const Q t187 = Q(c[27], c[27], c[28], c[28]) * t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t186);
        const Q t189 = Q(-c[29], c[29], c[30], -c[30]) * t188;
        const Q t190 = t187 + t189;
        const P t191 = part<0>(t190);
        const P t192 = flipped<0, 1>(t191);
        // complex block of 5, multiplier 4
        const P t193 = t168 + t192;
        const P t194 = flipped<1, 0>(t168);
        const P t195 = t191 + t194;
        const P t196 = part<0>(t176);
        const P t197 = part<0>(t182);
        const P t198 = t196 + t197;
        const P t199 = shuffled<0, 3>(t196, t197);
        const P t200 = shuffled<0, 3>(t197, t196);
        const P t201 = t199 - t200;
        const P t202 = part<1>(t176);
        const V t203 = part<1>(t202);
        const P t204 = part<1>(t190);
        const V t205 = part<1>(t204);
        // mirrored skew block of 4
        const V t206 = t203 + t205;
        const V t207 = part<0>(t202);
        const V t208 = part<0>(t204);
        const V t209 = t207 + t208;
        const V t210 = t205 - t203;
        const V t211 = t208 - t207;
        const Q t212 = shuffled<2, 3, 4, 5>(t115, t119);
        // real block of 41
        const Q t213 = Q(-c[31], c[31], -c[32], c[32]) * t212;
        const Q t214 = shuffled<1, 0, 3, 2>(t212);
        const Q t215 = Q(c[33], c[33], c[34], c[34]) * t214;
        const Q t216 = t213 + t215;
        const Q t217 = shuffled<1, 0, 3, 2>(t118);
        const Q t218 = shuffled<2, 3, 4, 5>(t114, t217);
        const Q t219 = Q(-c[35], c[35], c[36], c[36]) * t218;
        const Q t220 = shuffled<1, 0, 3, 2>(t218);
        const Q t221 = Q(c[37], c[37], c[38], -c[38]) * t220;
        const Q t222 = t219 + t221;
        const Q t223 = shuffled<1, 0, 3, 2>(t216);
        const Q t224 = shuffled<1, 0, 3, 2>(t222);
        // complex block of 2
        const Q t225 = t223 + t224;
        const Q t226 = t224 - t223;
        const Q t227 = shuffled<1, 0, 3, 2>(t119);
        const Q t228 = shuffled<2, 3, 4, 5>(t227, t115);
        // real block of 41
        const Q t229 = Q(-c[39], c[39], -c[40], c[40]) * t228;
        const Q t230 = shuffled<1, 0, 3, 2>(t228);
        const Q t231 = Q(c[41], c[41], c[42], c[42]) * t230;
        const Q t232 = t229 + t231;
        const Q t233 = shuffled<2, 3, 4, 5>(t118, t114);
        const Q t234 = Q(-c[43], c[43], -c[44], c[44]) * t233;
        const Q t235 = shuffled<1, 0, 3, 2>(t233);
        const Q t236 = Q(c[45], c[45], c[46], c[46]) * t235;
        const Q t237 = t234 + t236;
        const Q t238 = shuffled<1, 0, 3, 2>(t237);
        const Q t239 = flipped<1, 0, 0, 0>(t238);
        const Q t240 = shuffled<1, 0, 3, 2>(t232);
        // complex block of 2
        const Q t241 = t239 + t240;
        const Q t242 = flipped<0, 1, 0, 0>(t240);
        const Q t243 = flipped<1, 0, 1, 1>(t239);
        const Q t244 = t242 + t243;
        const Q t245 = shuffled<1, 0, 3, 2>(t241);
        const Q t246 = flipped<0, 0, 0, 1>(t225);
        // complex block of 2
        const Q t247 = t245 - t246;
        // complex block of 2
        const Q t248 = t226 - t244;
        const Q t249 = t226 + t244;
        // complex block of 2
        const Q t250 = t245 + t246;
        const P t251 = flipped<0, 1>(t198);
        // complex block of 5, multiplier 4
        const P t252 = t193 + t251;
        const P t253 = part<1>(t182);
        const P t254 = flipped<1, 0>(t253);
        const P t255 = t252 + t254;
        const P t256 = c[1] * t193;
        const P t257 = P(-c[0], c[0]) * t198;
        const P t258 = t256 + t257;
        const P t259 = t258 + t254;
        const P t260 = c[3] * t195;
        const P t261 = P(-c[2], c[2]) * t201;
        const P t262 = t260 + t261;
        const P t263 = P(c[0], -c[0]) * t193;
        const P t264 = t253 + t263;
        const P t265 = flipped<1, 0>(t264);
        const P t266 = P(c[1], -c[1]) * t198;
        const P t267 = t265 + t266;
        const P t268 = c[3] * t201;
        const P t269 = P(c[2], -c[2]) * t195;
        const P t270 = t268 + t269;
        const P t271 = joined(t122, t142);
        // spectrum block of 5, multiplier 4
        const P t272 = t155 + t271;
        const P t273 = joined(t141, t144);
        // spectrum block of 5, multiplier 4
        const V t274 = -c[0] * t150;
        const P t275 = joined(t122, t274);
        // spectrum block of 5, multiplier 4
        const P t276 = t273 + t275;
        const P t277 = flipped<1, 0>(t160);
        const P t278 = t276 + t277;
        const P t279 = t276 - t277;
        const P t280 = joined(t147, t152);
        const V t281 = c[1] * t139;
        const P t282 = joined(t281, t142);
        const P t283 = t280 + t282;
        const P t284 = t283 - t163;
        const P t285 = t283 + t163;
        const P t286 = shuffled<1, 0>(t262);
        // complex block of 5, multiplier 4
        const P t287 = t259 + t286;
        const V t288 = part<0>(t278);
        const V t289 = part<1>(t278);
        // spectrum block of 2
        const V t290 = t288 + t289;
        const V t291 = t288 - t289;
        const P t292 = joined(t290, t291);
        const P t293 = flipped<0, 1>(t287);
        // spectrum block of 2
        const P t294 = t292 + t293;
        const P t295 = t292 - t293;
        // complex block of 5, multiplier 4
        const P t296 = t259 - t286;
        const P t297 = shuffled<1, 0>(t270);
        const P t298 = flipped<1, 0>(t297);
        const P t299 = t267 + t298;
        const P t300 = t267 - t298;
        const P t301 = shuffled<0, 2>(t272, t279);
        const P t302 = shuffled<0, 2>(t285, t284);
        const Q t303 = joined(t301, t302);
        const P t304 = shuffled<1, 3>(t272, t279);
        const P t305 = shuffled<1, 3>(t285, t284);
        const Q t306 = joined(t304, t305);
        // spectrum block of 2
        const Q t307 = t303 + t306;
        const Q t308 = t303 - t306;
        const P t309 = shuffled<0, 2>(t255, t296);
        const P t310 = shuffled<0, 2>(t300, t299);
        const Q t311 = joined(t309, t310);
        // spectrum block of 2
        const Q t312 = t307 + t311;
        const Q t313 = t307 - t311;
        const P t314 = shuffled<1, 3>(t255, t296);
        const P t315 = shuffled<1, 3>(t300, t299);
        const Q t316 = joined(t314, t315);
        // spectrum block of 2
        const Q t317 = t308 - t316;
        const Q t318 = t308 + t316;
        const Q t319 = shuffled<0, 1, 4, 5>(t247, t248);
        // mirrored skew block of 20
        const Q t320 = Q(c[5], c[5], c[3], c[3]) * t319;
        const Q t321 = shuffled<1, 0, 3, 2>(t319);
        const Q t322 = Q(-c[6], c[6], -c[1], c[1]) * t321;
        const Q t323 = t320 + t322;
        const Q t324 = shuffled<2, 3, 6, 7>(t247, t248);
        const Q t325 = Q(c[7], -c[7], c[2], c[2]) * t324;
        const Q t326 = shuffled<1, 0, 3, 2>(t324);
        const Q t327 = Q(c[8], c[8], -c[0], c[0]) * t326;
        const Q t328 = t325 + t327;
        const Q t329 = shuffled<1, 0, 3, 2>(t250);
        const Q t330 = shuffled<2, 3, 4, 5>(t329, t250);
        const Q t331 = Q(c[5], -c[5], -c[7], c[7]) * t330;
        const Q t332 = shuffled<1, 0, 3, 2>(t330);
        const Q t333 = Q(c[6], c[6], c[8], c[8]) * t332;
        const Q t334 = t331 + t333;
        // mirrored skew block of 4
        const V t335 = c[4] * t209;
        const V t336 = c[4] * t206;
        const V t337 = t335 - t336;
        const V t338 = t336 + t335;
        const P t339 = part<1>(t249);
        const P t340 = part<0>(t334);
        const P t341 = shuffled<0, 2>(t339, t340);
        const P t342 = part<0>(t328);
        const P t343 = part<1>(t328);
        const P t344 = shuffled<0, 2>(t342, t343);
        const Q t345 = joined(t341, t344);
        // spectrum block of 5, multiplier 2
        const Q t346 = c[1] * t345;
        const P t347 = part<0>(t346);
        const V t348 = part<0>(t347);
        const P t349 = part<0>(t249);
        const V t350 = part<0>(t349);
        const V t351 = c[0] * t350;
        const V t352 = t348 - t351;
        const Q t353 = c[0] * t345;
        const P t354 = part<0>(t353);
        const V t355 = part<0>(t354);
        const V t356 = t210 - t355;
        const P t357 = part<1>(t346);
        const P t358 = part<0>(t323);
        const P t359 = part<1>(t323);
        const P t360 = shuffled<0, 2>(t358, t359);
        // spectrum block of 5, multiplier 2
        const P t361 = c[0] * t360;
        const P t362 = t357 - t361;
        const P t363 = joined(t337, t211);
        const P t364 = part<1>(t353);
        const P t365 = flipped<1, 0>(t364);
        const P t366 = t363 + t365;
        const Q t367 = flipped<0, 1, 0, 0>(t345);
        const P t368 = part<1>(t334);
        const P t369 = shuffled<0, 2>(t349, t368);
        const Q t370 = joined(t369, t360);
        // spectrum block of 5, multiplier 2
        const Q t371 = t367 + t370;
        const V t372 = part<1>(t347);
        // spectrum block of 5, multiplier 2
        const V t373 = t338 - t372;
        const V t374 = part<1>(t354);
        const V t375 = part<0>(t368);
        const V t376 = c[1] * t375;
        const V t377 = t374 + t376;
        const P t378 = joined(t210, t338);
        const P t379 = flipped<0, 1>(t363);
        const Q t380 = joined(t378, t379);
        // spectrum block of 5, multiplier 2
        const Q t381 = t371 + t380;
        const P t382 = part<0>(t312);
        const P t383 = part<0>(t381);
        const P t384 = shuffled<0, 2>(t382, t383);
        io.pair(1, t384);
        const P t385 = part<1>(t381);
        const P t386 = shuffled<1, 2>(t294, t385);
        io.pair(7, t386);
        const P t387 = part<1>(t313);
        const P t388 = shuffled<1, 3>(t387, t385);
        io.pair(8, t388);
        const P t389 = part<1>(t318);
        const P t390 = shuffled<0, 3>(t389, t383);
        io.pair(15, t390);
        const P t391 = joined(t352, t373);
        const Q t392 = joined(t391, t362);
        // spectrum block of 5, multiplier 2
        const V t393 = -c[0] * t375;
        const P t394 = joined(t210, t393);
        const Q t395 = joined(t394, t379);
        // spectrum block of 5, multiplier 2
        const Q t396 = t392 + t395;
        const P t397 = shuffled<1, 3>(t339, t340);
        const P t398 = shuffled<1, 3>(t342, t343);
        const Q t399 = joined(t397, t398);
        const Q t400 = Q(c[3], -c[3], c[3], c[3]) * t399;
        const P t401 = shuffled<1, 3>(t349, t368);
        const P t402 = shuffled<1, 3>(t358, t359);
        const Q t403 = joined(t401, t402);
        const Q t404 = c[2] * t403;
        const Q t405 = t400 + t404;
        const Q t406 = flipped<0, 1, 0, 0>(t405);
        const Q t407 = t396 + t406;
        const P t408 = part<0>(t317);
        const P t409 = part<1>(t407);
        const P t410 = shuffled<0, 2>(t408, t409);
        io.pair(3, t410);
        const P t411 = part<0>(t407);
        const P t412 = shuffled<1, 3>(t389, t411);
        io.pair(17, negated<0, 1>(t412));
        const P t413 = shuffled<1, 2>(t382, t411);
        io.pair(18, t413);
        const P t414 = shuffled<0, 3>(t295, t409);
        io.pair(20, negated<0, 1>(t414));
        const Q t415 = t396 - t406;
        const P t416 = part<1>(t415);
        const P t417 = shuffled<0, 3>(t387, t416);
        io.pair(5, t417);
        const P t418 = part<0>(t318);
        const P t419 = part<0>(t415);
        const P t420 = shuffled<1, 3>(t418, t419);
        io.pair(6, negated<0, 1>(t420));
        const P t421 = part<1>(t317);
        const P t422 = shuffled<1, 2>(t421, t416);
        io.pair(11, negated<0, 1>(t422));
        const P t423 = shuffled<0, 2>(t294, t419);
        io.pair(16, t423);
        const P t424 = joined(t356, t377);
        // spectrum block of 5, multiplier 2
        const P t425 = c[1] * t360;
        const Q t426 = joined(t424, t425);
        // spectrum block of 5, multiplier 2
        const V t427 = c[1] * t350;
        const P t428 = joined(t427, t338);
        const P t429 = flipped<0, 1>(t366);
        const Q t430 = joined(t428, t429);
        const Q t431 = t426 + t430;
        const Q t432 = c[3] * t403;
        const Q t433 = Q(c[2], -c[2], c[2], c[2]) * t399;
        const Q t434 = t432 - t433;
        const Q t435 = flipped<0, 1, 0, 0>(t434);
        const Q t436 = t431 - t435;
        const P t437 = part<1>(t312);
        const P t438 = part<0>(t436);
        const P t439 = shuffled<0, 2>(t437, t438);
        io.pair(4, negated<0, 1>(t439));
        const P t440 = part<0>(t313);
        const P t441 = part<1>(t436);
        const P t442 = shuffled<0, 3>(t440, t441);
        io.pair(9, t442);
        const P t443 = shuffled<1, 2>(t408, t441);
        io.pair(13, t443);
        const P t444 = shuffled<1, 3>(t295, t438);
        io.pair(19, negated<0, 1>(t444));
        const Q t445 = t431 + t435;
        const P t446 = part<1>(t445);
        const P t447 = shuffled<1, 3>(t440, t446);
        io.pair(2, negated<0, 1>(t447));
        const P t448 = part<0>(t445);
        const P t449 = shuffled<1, 2>(t437, t448);
        io.pair(10, t449);
        const P t450 = shuffled<0, 2>(t421, t446);
        io.pair(12, negated<0, 1>(t450));
        const P t451 = shuffled<0, 3>(t418, t448);
        io.pair(14, negated<0, 1>(t451));
    }
};

}  // namespace zulg
