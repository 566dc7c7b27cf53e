// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 41.
// Hartley transform of 41 points, form F; up to four lanes to a register.
// 111 sums, 72 differences, 76 products of registers, which do the 767 steps of the graph, those with
// `scale` included; 147 shuffles, 27 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<41> {
    static constexpr int steps = 767;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
        0.9876883405951378,  // c[5]: cos 2 pi 39/40
        0.15643446504023087,  // c[6]: -sin 2 pi 39/40
        0.4539904997395468,  // c[7]: -sin 2 pi 37/40
        0.8910065241883679,  // c[8]: cos 2 pi 37/40
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
        0.31967734584865853,  // c[19]: P[6] of 41
        0.12834895928380738,  // c[20]: P[5] of 41
        0.017504129545828598,  // c[21]: -Q[6] of 41
        0.2933028207344136,  // c[22]: Q[5] of 41
        0.09523405704741086,  // c[23]: P[14] of 41
        0.10597392847320843,  // c[24]: -P[10] of 41
        0.30566398933844086,  // c[25]: Q[14] of 41
        0.30210846807720454,  // c[26]: -Q[10] of 41
        0.20984607269049432,  // c[27]: -P[18] of 41
        0.024028443109264917,  // c[28]: Q[15] of 41
        0.24179459418352547,  // c[29]: -Q[18] of 41
        0.3192532441835867,  // c[30]: -P[15] of 41
        0.2620989421184033,  // c[31]: P[1] of 41
        0.08656031809698493,  // c[32]: P[3] of 41
        0.1838590344269595,  // c[33]: Q[1] of 41
        0.30823256046522535,  // c[34]: Q[3] of 41
        0.17218367347358104,  // c[35]: P[19] of 41
        0.2399755958777195,  // c[36]: -P[17] of 41
        0.26991254618698857,  // c[37]: -Q[19] of 41
        0.21192383863816136,  // c[38]: -Q[17] of 41
        0.3155360928303509,  // c[39]: P[9] of 41
        0.026176684051836208,  // c[40]: P[7] of 41
        0.05419385685994486,  // c[41]: -Q[9] of 41
        0.31908428543576123,  // c[42]: -Q[7] of 41
        0.0731522471449556,  // c[43]: -Q[11] of 41
        0.16968041280638677,  // c[44]: P[13] of 41
        0.3116869402744416,  // c[45]: -P[11] of 41
        0.27149319974882274,  // c[46]: Q[13] of 41
        0.025,  // c[47]: 1/40
        0.16007810593582122,  // c[48]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
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
        const Q x31_17_8_11 = io.in(31, 17, 8, 11);
        const Q x4_26_5_12 = io.in(4, 26, 5, 12);
        // real block of 5, multiplier 3
        const Q t5 = x31_17_8_11 + x4_26_5_12;
        const Q t6 = x31_17_8_11 - x4_26_5_12;
        const Q x25_19_21_34 = io.in(25, 19, 21, 34);
        const Q x23_6_39_28 = io.in(23, 6, 39, 28);
        const Q t7 = x25_19_21_34 + x23_6_39_28;
        const Q t8 = x25_19_21_34 - x23_6_39_28;
        const Q t9 = t5 + t7;
        const Q x1_27_32_3 = io.in(1, 27, 32, 3);
        // real block of 5, multiplier 3
        const Q t10 = t4 + x1_27_32_3;
        const Q x40_14_9_38 = io.in(40, 14, 9, 38);
        // real block of 5, multiplier 3
        const Q t11 = t9 + x40_14_9_38;
        // real block of 2
        const Q t12 = t10 - t11;
        // real block of 5, multiplier 3
        const Q t13 = c[0] * t2;
        const Q t14 = x1_27_32_3 - t13;
        const Q t15 = c[1] * t0;
        const Q t16 = t14 + t15;
        const Q t17 = c[2] * t3;
        const Q t18 = c[3] * t1;
        const Q t19 = t17 + t18;
        const Q t20 = c[1] * t2;
        const Q t21 = c[0] * t0;
        const Q t22 = t20 - t21;
        const Q t23 = t22 + x1_27_32_3;
        const Q t24 = c[2] * t1;
        const Q t25 = c[3] * t3;
        const Q t26 = t24 - t25;
        // real block of 5, multiplier 3
        const Q t27 = c[0] * t5;
        const Q t28 = x40_14_9_38 - t27;
        const Q t29 = c[1] * t7;
        const Q t30 = t28 + t29;
        const Q t31 = c[2] * t6;
        const Q t32 = c[3] * t8;
        const Q t33 = t31 + t32;
        const Q t34 = c[1] * t5;
        const Q t35 = c[0] * t7;
        const Q t36 = t34 - t35;
        const Q t37 = t36 + x40_14_9_38;
        const Q t38 = c[2] * t8;
        const Q t39 = c[3] * t6;
        const Q t40 = t38 - t39;
        const Q t41 = shuffled<1, 5, 3, 7>(t16, t19);
        const Q t42 = shuffled<1, 5, 3, 7>(t23, t26);
        const Q t43 = shuffled<0, 1, 4, 5>(t41, t42);
        const Q t44 = shuffled<1, 5, 3, 7>(t30, t33);
        const Q t45 = shuffled<1, 5, 3, 7>(t37, t40);
        const Q t46 = shuffled<0, 1, 4, 5>(t44, t45);
        // complex block of 2
        const Q t47 = t43 - t46;
        const Q t48 = shuffled<2, 3, 6, 7>(t41, t42);
        const Q t49 = shuffled<2, 3, 6, 7>(t44, t45);
        // complex block of 2
        const Q t50 = t48 - t49;
        // real block of 2
        const Q t51 = t10 + t11;
        const P t52 = part<0>(t51);
        const P t53 = part<1>(t51);
        // real block of 2
        const P t54 = t52 + t53;
        const P t55 = t52 - t53;
        const P t56 = part<0>(t12);
        const V t57 = part<1>(t56);
        const P t58 = part<1>(t12);
        const V t59 = part<1>(t58);
        // skew block of 4, multiplier 5
        const V t60 = t57 - t59;
        const V t61 = t57 + t59;
        const Q t62 = shuffled<0, 4, 2, 6>(t16, t19);
        const Q t63 = shuffled<0, 4, 2, 6>(t23, t26);
        const Q t64 = shuffled<0, 1, 4, 5>(t62, t63);
        const Q t65 = shuffled<0, 4, 2, 6>(t30, t33);
        const Q t66 = shuffled<0, 4, 2, 6>(t37, t40);
        const Q t67 = shuffled<0, 1, 4, 5>(t65, t66);
        // complex block of 2
        const Q t68 = t64 + t67;
        const Q t69 = shuffled<2, 3, 6, 7>(t62, t63);
        const Q t70 = shuffled<2, 3, 6, 7>(t65, t66);
        // complex block of 2
        const Q t71 = t69 + t70;
        // complex block of 2
        const Q t72 = t68 + t71;
        const Q t73 = t68 - t71;
        // complex block of 2
        const Q t74 = t43 + t46;
        // complex block of 2
        const Q t75 = t48 + t49;
        // complex block of 2
        const Q t76 = t74 + t75;
        const Q t77 = t74 - t75;
        const V t78 = part<0>(t54);
        const V t79 = part<1>(t54);
        // real block of 2
        const V t80 = t78 + t79;
        const V t81 = t78 - t79;
        // skew block of 4, multiplier 5
        const V t82 = c[4] * t61;
        const V t83 = part<0>(t58);
        const V t84 = t82 - t83;
        const V t85 = part<0>(t56);
        const V t86 = c[4] * t60;
        const V t87 = t85 - t86;
        const Q t88 = shuffled<1, 0, 3, 2>(t77);
        const Q t89 = flipped<1, 0, 1, 0>(t88);
        // complex block of 2
        const Q t90 = t73 + t89;
        // skew block of 4, multiplier 5
        const V t91 = t85 + t86;
        const V t92 = t83 + t82;
        // complex block of 2
        const Q t93 = t73 - t89;
        // complex block of 2
        const Q t94 = t72 + t76;
        const Q t95 = t72 - t76;
        // complex block of 2
        const Q t96 = t64 - t67;
        // complex block of 2
        const Q t97 = t69 - t70;
        const Q t98 = shuffled<1, 0, 3, 2>(t97);
        const Q t99 = flipped<0, 1, 0, 1>(t98);
        // complex block of 2
        const Q t100 = t96 + t99;
        const Q t101 = t96 - t99;
        // complex block of 8, multiplier 5
        const Q t102 = c[4] * t47;
        const Q t103 = shuffled<1, 0, 3, 2>(t102);
        const Q t104 = flipped<0, 1, 0, 1>(t103);
        const Q t105 = t102 + t104;
        const Q t106 = c[4] * t50;
        const Q t107 = shuffled<1, 0, 3, 2>(t106);
        const Q t108 = flipped<0, 1, 0, 1>(t107);
        const Q t109 = t106 + t108;
        const Q t110 = shuffled<1, 0, 3, 2>(t109);
        const Q t111 = flipped<0, 1, 0, 1>(t105);
        // complex block of 2
        const Q t112 = t110 + t111;
        const Q t113 = t110 - t111;
        const Q t114 = flipped<1, 0, 1, 0>(t112);
        // complex block of 2
        const Q t115 = t100 + t114;
        const Q t116 = t100 - t114;
        const Q t117 = shuffled<1, 0, 3, 2>(t113);
        // complex block of 2
        const Q t118 = t101 - t117;
        const Q t119 = t101 + t117;
        const V x0 = io.in(0);
        // real block of 41, multiplier 40
        const V t120 = x0 + t80;
        io.out(0, t120);
        const V t121 = c[47] * t80;
        const V t122 = x0 - t121;
        const Q t123 = shuffled<0, 1, 6, 7>(t94, t95);
        const Q t124 = shuffled<1, 0, 3, 2>(t123);
        const Q t125 = Q(-c[9], c[9], c[10], c[10]) * t124;
        const Q t126 = Q(c[11], c[11], c[12], -c[12]) * t123;
        const Q t127 = t125 + t126;
        const Q t128 = shuffled<2, 3, 4, 5>(t94, t95);
        const Q t129 = Q(c[13], c[13], c[14], c[14]) * t128;
        const Q t130 = shuffled<1, 0, 3, 2>(t128);
        const Q t131 = Q(-c[15], c[15], c[16], -c[16]) * t130;
        const Q t132 = t129 + t131;
        const P t133 = part<0>(t127);
        const P t134 = part<1>(t127);
        const P t135 = shuffled<0, 2>(t133, t134);
        const P t136 = part<0>(t132);
        const P t137 = part<1>(t132);
        const P t138 = shuffled<0, 2>(t136, t137);
        const P t139 = flipped<0, 1>(t138);
        // spectrum block of 5, multiplier 4
        const P t140 = t135 + t139;
        const P t141 = shuffled<0, 3>(t135, t138);
        const P t142 = c[1] * t141;
        const V t143 = part<0>(t142);
        const V t144 = part<0>(t139);
        const V t145 = c[0] * t144;
        const V t146 = t143 - t145;
        // real block of 41, multiplier 40
        const V t147 = c[48] * t81;
        const V t148 = part<1>(t142);
        // spectrum block of 5, multiplier 4
        const V t149 = t147 - t148;
        const P t150 = joined(t146, t149);
        const V t151 = part<0>(t134);
        const V t152 = -c[0] * t151;
        const P t153 = joined(t122, t152);
        // spectrum block of 5, multiplier 4
        const P t154 = t150 + t153;
        const P t155 = c[0] * t141;
        const V t156 = part<0>(t155);
        const V t157 = t122 - t156;
        const V t158 = part<1>(t155);
        // spectrum block of 5, multiplier 4
        const V t159 = c[1] * t151;
        const V t160 = t158 + t159;
        const P t161 = joined(t157, t160);
        // spectrum block of 5, multiplier 4
        const V t162 = c[1] * t144;
        const P t163 = joined(t162, t147);
        const P t164 = t161 + t163;
        const P t165 = shuffled<0, 3>(t153, t163);
        const P t166 = t140 + t165;
        const P t167 = shuffled<1, 3>(t133, t137);
        const P t168 = c[3] * t167;
        const P t169 = shuffled<1, 3>(t136, t134);
        const P t170 = c[2] * t169;
        const P t171 = t168 + t170;
        const P t172 = P(-c[3], c[3]) * t169;
        const P t173 = P(c[2], -c[2]) * t167;
        const P t174 = t172 + t173;
        const P t175 = part<0>(t90);
        const P t176 = shuffled<1, 0>(t175);
        // real block of 41, multiplier 40
        const P t177 = c[17] * t176;
        const P t178 = P(c[18], -c[18]) * t175;
        const P t179 = t177 + t178;
        const P t180 = part<1>(t90);
        const P t181 = joined(t87, t84);
        const Q t182 = joined(t180, t181);
        const Q t183 = Q(c[19], c[19], c[20], c[20]) * t182;
        const Q t184 = shuffled<1, 0, 3, 2>(t182);
        const Q t185 = Q(c[21], -c[21], -c[22], c[22]) * t184;
        const Q t186 = t183 + t185;
        const P t187 = part<1>(t93);
        const Q t188 = joined(t187, t55);
        const Q t189 = Q(c[23], -c[23], c[24], c[24]) * t188;
        const Q t190 = shuffled<1, 0, 3, 2>(t188);
        const Q t191 = Q(c[25], c[25], c[26], -c[26]) * t190;
        const Q t192 = t189 + t191;
        const P t193 = part<0>(t93);
        const P t194 = joined(t92, t91);
        const Q t195 = joined(t193, t194);
        const Q t196 = Q(-c[27], c[27], c[28], c[28]) * t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t195);
        const Q t198 = Q(c[29], c[29], c[30], -c[30]) * t197;
        const Q t199 = t196 + t198;
        const P t200 = part<0>(t199);
        const P t201 = flipped<0, 1>(t200);
        // complex block of 5, multiplier 4
        const P t202 = t179 + t201;
        const P t203 = flipped<1, 0>(t179);
        const P t204 = t200 + t203;
        const P t205 = part<0>(t186);
        const P t206 = part<0>(t192);
        const P t207 = t205 + t206;
        const P t208 = shuffled<0, 3>(t205, t206);
        const P t209 = shuffled<0, 3>(t206, t205);
        const P t210 = t208 - t209;
        const P t211 = part<1>(t186);
        const V t212 = part<1>(t211);
        const P t213 = part<1>(t199);
        const V t214 = part<1>(t213);
        // mirrored skew block of 4
        const V t215 = t212 - t214;
        const V t216 = part<0>(t213);
        const V t217 = part<0>(t211);
        const V t218 = t216 - t217;
        const P t219 = flipped<0, 1>(t207);
        // complex block of 5, multiplier 4
        const P t220 = t202 + t219;
        const P t221 = c[1] * t202;
        const P t222 = P(-c[0], c[0]) * t207;
        const P t223 = t221 + t222;
        const P t224 = c[3] * t204;
        const P t225 = P(-c[2], c[2]) * t210;
        const P t226 = t224 + t225;
        const P t227 = part<1>(t192);
        const P t228 = P(c[0], -c[0]) * t202;
        const P t229 = t227 + t228;
        const P t230 = c[3] * t210;
        const P t231 = P(c[2], -c[2]) * t204;
        const P t232 = t230 + t231;
        // mirrored skew block of 4
        const V t233 = c[4] * t215;
        const V t234 = c[4] * t218;
        const V t235 = t233 - t234;
        const V t236 = t233 + t234;
        const V t237 = t212 + t214;
        const V t238 = t217 + t216;
        const Q t239 = shuffled<2, 3, 4, 5>(t116, t119);
        // real block of 41, multiplier 40
        const Q t240 = Q(c[31], c[31], c[32], c[32]) * t239;
        const Q t241 = shuffled<1, 0, 3, 2>(t239);
        const Q t242 = Q(-c[33], c[33], -c[34], c[34]) * t241;
        const Q t243 = t240 + t242;
        const Q t244 = shuffled<2, 3, 4, 5>(t115, t118);
        const Q t245 = Q(c[35], c[35], c[36], c[36]) * t244;
        const Q t246 = shuffled<1, 0, 3, 2>(t244);
        const Q t247 = Q(-c[37], c[37], c[38], -c[38]) * t246;
        const Q t248 = t245 + t247;
        const Q t249 = shuffled<1, 4, 3, 6>(t243, t248);
        const Q t250 = shuffled<1, 4, 3, 6>(t248, t243);
        const Q t251 = flipped<0, 0, 1, 1>(t250);
        // complex block of 2
        const Q t252 = t249 + t251;
        const Q t253 = t249 - t251;
        const Q t254 = shuffled<2, 3, 4, 5>(t118, t116);
        // real block of 41, multiplier 40
        const Q t255 = Q(c[39], c[39], c[40], c[40]) * t254;
        const Q t256 = shuffled<1, 0, 3, 2>(t254);
        const Q t257 = Q(-c[41], c[41], -c[42], c[42]) * t256;
        const Q t258 = t255 + t257;
        const Q t259 = shuffled<1, 0, 3, 2>(t119);
        const Q t260 = shuffled<2, 3, 4, 5>(t259, t115);
        const Q t261 = Q(c[43], c[43], c[44], c[44]) * t260;
        const Q t262 = shuffled<1, 0, 3, 2>(t260);
        const Q t263 = Q(-c[45], c[45], -c[46], c[46]) * t262;
        const Q t264 = t261 + t263;
        const Q t265 = shuffled<1, 0, 3, 2>(t264);
        const Q t266 = flipped<1, 0, 0, 0>(t265);
        const Q t267 = shuffled<1, 0, 3, 2>(t258);
        // complex block of 2
        const Q t268 = t266 + t267;
        const Q t269 = flipped<0, 0, 1, 0>(t267);
        const Q t270 = flipped<1, 1, 0, 1>(t266);
        const Q t271 = t269 + t270;
        const Q t272 = flipped<0, 1, 0, 0>(t252);
        const Q t273 = shuffled<1, 0, 3, 2>(t268);
        // complex block of 2
        const Q t274 = t272 + t273;
        const Q t275 = flipped<0, 1, 1, 0>(t271);
        // complex block of 2
        const Q t276 = t253 + t275;
        const Q t277 = flipped<0, 1, 0, 0>(t273);
        // complex block of 2
        const Q t278 = t252 - t277;
        const Q t279 = shuffled<0, 1, 4, 5>(t274, t276);
        // mirrored skew block of 20
        const Q t280 = Q(c[5], c[5], c[3], c[3]) * t279;
        const Q t281 = shuffled<1, 0, 3, 2>(t279);
        const Q t282 = Q(-c[6], c[6], -c[1], c[1]) * t281;
        const Q t283 = t280 + t282;
        const Q t284 = flipped<1, 1, 1, 0>(t275);
        const Q t285 = flipped<0, 0, 0, 1>(t253);
        // complex block of 2
        const Q t286 = t284 + t285;
        const Q t287 = shuffled<2, 3, 6, 7>(t274, t276);
        const Q t288 = shuffled<1, 0, 3, 2>(t287);
        // mirrored skew block of 20
        const Q t289 = Q(-c[7], c[7], c[0], c[0]) * t288;
        const Q t290 = Q(c[8], c[8], c[2], -c[2]) * t287;
        const Q t291 = t289 + t290;
        const Q t292 = shuffled<2, 3, 0, 1>(t278);
        const Q t293 = shuffled<1, 0, 3, 2>(t292);
        const Q t294 = Q(-c[5], c[5], c[7], c[7]) * t293;
        const Q t295 = Q(c[6], c[6], c[8], -c[8]) * t292;
        const Q t296 = t294 + t295;
        const P t297 = flipped<1, 0>(t227);
        // complex block of 5, multiplier 4
        const P t298 = t220 + t297;
        const P t299 = t223 + t297;
        const P t300 = shuffled<1, 0>(t226);
        const P t301 = t299 + t300;
        const P t302 = t299 - t300;
        const P t303 = flipped<1, 0>(t229);
        const P t304 = P(c[1], -c[1]) * t207;
        const P t305 = t303 + t304;
        const P t306 = shuffled<1, 0>(t232);
        const P t307 = flipped<1, 0>(t306);
        const P t308 = t305 + t307;
        const P t309 = t305 - t307;
        const P t310 = flipped<1, 0>(t171);
        // spectrum block of 5, multiplier 4
        const P t311 = t154 + t310;
        const V t312 = part<0>(t311);
        const V t313 = part<1>(t311);
        // spectrum block of 2
        const V t314 = t312 + t313;
        const V t315 = t312 - t313;
        // spectrum block of 5, multiplier 4
        const P t316 = t154 - t310;
        const P t317 = t164 - t174;
        const P t318 = t164 + t174;
        const P t319 = shuffled<0, 2>(t166, t316);
        const P t320 = shuffled<0, 2>(t318, t317);
        const Q t321 = joined(t319, t320);
        const P t322 = shuffled<1, 3>(t166, t316);
        const P t323 = shuffled<1, 3>(t318, t317);
        const Q t324 = joined(t322, t323);
        // spectrum block of 2
        const Q t325 = t321 + t324;
        const Q t326 = t321 - t324;
        const P t327 = part<1>(t286);
        const P t328 = part<0>(t296);
        const P t329 = shuffled<0, 2>(t327, t328);
        const P t330 = part<0>(t291);
        const P t331 = part<1>(t291);
        const P t332 = shuffled<0, 2>(t330, t331);
        const Q t333 = joined(t329, t332);
        const P t334 = part<0>(t286);
        const P t335 = part<1>(t296);
        const P t336 = shuffled<0, 2>(t334, t335);
        const P t337 = part<0>(t283);
        const P t338 = part<1>(t283);
        const P t339 = shuffled<0, 2>(t337, t338);
        const Q t340 = joined(t336, t339);
        // spectrum block of 5, multiplier 2
        const Q t341 = t333 + t340;
        const V t342 = flipped<1>(t236);
        const P t343 = joined(t237, t342);
        const P t344 = joined(t235, t238);
        const Q t345 = joined(t343, t344);
        const Q t346 = t341 + t345;
        const Q t347 = c[1] * t333;
        const Q t348 = c[0] * t340;
        const Q t349 = t347 - t348;
        const Q t350 = t349 + t345;
        const P t351 = shuffled<1, 3>(t327, t328);
        const P t352 = shuffled<1, 3>(t330, t331);
        const Q t353 = joined(t351, t352);
        const Q t354 = c[3] * t353;
        const P t355 = shuffled<1, 3>(t334, t335);
        const P t356 = shuffled<1, 3>(t337, t338);
        const Q t357 = joined(t355, t356);
        const Q t358 = c[2] * t357;
        const Q t359 = t354 + t358;
        const Q t360 = flipped<0, 1, 0, 0>(t345);
        const Q t361 = Q(c[0], -c[0], c[0], c[0]) * t333;
        const Q t362 = t360 - t361;
        const Q t363 = flipped<0, 1, 0, 0>(t362);
        const Q t364 = c[1] * t340;
        const Q t365 = t363 + t364;
        const Q t366 = c[3] * t357;
        const Q t367 = c[2] * t353;
        const Q t368 = t366 - t367;
        const P t369 = shuffled<0, 2>(t298, t302);
        const P t370 = shuffled<0, 2>(t309, t308);
        const Q t371 = joined(t369, t370);
        // spectrum block of 2
        const Q t372 = t325 + t371;
        const Q t373 = t325 - t371;
        const P t374 = shuffled<1, 3>(t298, t302);
        const P t375 = shuffled<1, 3>(t309, t308);
        const Q t376 = joined(t374, t375);
        // spectrum block of 2
        const Q t377 = t326 - t376;
        const Q t378 = t326 + t376;
        const P t379 = joined(t314, t315);
        const P t380 = flipped<0, 1>(t301);
        // spectrum block of 2
        const P t381 = t379 + t380;
        const P t382 = t379 - t380;
        // spectrum block of 5, multiplier 2
        const Q t383 = t350 + t359;
        const Q t384 = t350 - t359;
        const Q t385 = t365 - t368;
        const Q t386 = t365 + t368;
        const P t387 = part<0>(t372);
        const V t388 = part<0>(t387);
        const P t389 = part<0>(t346);
        const V t390 = part<0>(t389);
        // output stage
        const V t391 = t388 + t390;
        io.out(1, t391);
        const V t392 = t388 - t390;
        io.out(40, t392);
        const P t393 = part<0>(t373);
        const V t394 = part<1>(t393);
        const P t395 = part<1>(t386);
        const V t396 = part<1>(t395);
        const V t397 = t394 - t396;
        io.out(2, t397);
        const V t398 = t394 + t396;
        io.out(39, t398);
        const P t399 = part<0>(t377);
        const V t400 = part<0>(t399);
        const P t401 = part<1>(t383);
        const V t402 = part<0>(t401);
        const V t403 = t400 + t402;
        io.out(3, t403);
        const V t404 = t400 - t402;
        io.out(38, t404);
        const P t405 = part<1>(t372);
        const V t406 = part<0>(t405);
        const P t407 = part<0>(t385);
        const V t408 = part<0>(t407);
        const V t409 = t406 - t408;
        io.out(4, t409);
        const V t410 = t406 + t408;
        io.out(37, t410);
        const P t411 = part<1>(t373);
        const V t412 = part<0>(t411);
        const P t413 = part<1>(t384);
        const V t414 = part<1>(t413);
        const V t415 = t412 + t414;
        io.out(5, t415);
        const V t416 = t412 - t414;
        io.out(36, t416);
        const P t417 = part<0>(t378);
        const V t418 = part<1>(t417);
        const P t419 = part<0>(t384);
        const V t420 = part<1>(t419);
        const V t421 = t418 - t420;
        io.out(6, t421);
        const V t422 = t418 + t420;
        io.out(35, t422);
        const V t423 = part<1>(t381);
        const P t424 = part<1>(t346);
        const V t425 = part<0>(t424);
        const V t426 = t423 + t425;
        io.out(7, t426);
        const V t427 = t423 - t425;
        io.out(34, t427);
        const V t428 = part<1>(t411);
        const V t429 = part<1>(t424);
        const V t430 = t428 + t429;
        io.out(8, t430);
        const V t431 = t428 - t429;
        io.out(33, t431);
        const V t432 = part<0>(t393);
        const P t433 = part<1>(t385);
        const V t434 = part<1>(t433);
        const V t435 = t432 + t434;
        io.out(9, t435);
        const V t436 = t432 - t434;
        io.out(32, t436);
        const V t437 = part<1>(t405);
        const P t438 = part<0>(t386);
        const V t439 = part<0>(t438);
        const V t440 = t437 + t439;
        io.out(10, t440);
        const V t441 = t437 - t439;
        io.out(31, t441);
        const P t442 = part<1>(t377);
        const V t443 = part<1>(t442);
        const V t444 = part<0>(t413);
        const V t445 = t443 - t444;
        io.out(11, t445);
        const V t446 = t443 + t444;
        io.out(30, t446);
        const V t447 = part<0>(t442);
        const V t448 = part<0>(t395);
        const V t449 = t447 - t448;
        io.out(12, t449);
        const V t450 = t447 + t448;
        io.out(29, t450);
        const V t451 = part<1>(t399);
        const V t452 = part<0>(t433);
        const V t453 = t451 + t452;
        io.out(13, t453);
        const V t454 = t451 - t452;
        io.out(28, t454);
        const V t455 = part<0>(t417);
        const V t456 = part<1>(t438);
        const V t457 = t455 - t456;
        io.out(14, t457);
        const V t458 = t455 + t456;
        io.out(27, t458);
        const P t459 = part<1>(t378);
        const V t460 = part<0>(t459);
        const V t461 = part<1>(t389);
        const V t462 = t460 + t461;
        io.out(15, t462);
        const V t463 = t460 - t461;
        io.out(26, t463);
        const V t464 = part<0>(t381);
        const V t465 = part<0>(t419);
        const V t466 = t464 + t465;
        io.out(16, t466);
        const V t467 = t464 - t465;
        io.out(25, t467);
        const V t468 = part<1>(t459);
        const P t469 = part<0>(t383);
        const V t470 = part<1>(t469);
        const V t471 = t468 - t470;
        io.out(17, t471);
        const V t472 = t468 + t470;
        io.out(24, t472);
        const V t473 = part<1>(t387);
        const V t474 = part<0>(t469);
        const V t475 = t473 + t474;
        io.out(18, t475);
        const V t476 = t473 - t474;
        io.out(23, t476);
        const V t477 = part<1>(t382);
        const V t478 = part<1>(t407);
        const V t479 = t477 - t478;
        io.out(19, t479);
        const V t480 = t477 + t478;
        io.out(22, t480);
        const V t481 = part<0>(t382);
        const V t482 = part<1>(t401);
        const V t483 = t481 - t482;
        io.out(20, t483);
        const V t484 = t481 + t482;
        io.out(21, t484);
    }
};

}  // namespace zulg
