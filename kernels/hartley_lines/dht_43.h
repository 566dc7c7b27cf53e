// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 43.
// Hartley transform of 43 points, form I; up to four lanes to a register.
// 110 sums, 69 differences, 111 products of registers, which do the 969 steps of the graph, those with
// `scale` included; 125 shuffles, 42 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<43> {
    static constexpr int steps = 969;  // with `scale`
    static constexpr double inverseRoot = 0.15249857033260467;  // 1/sqrt(43), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 3/7
        0.6234898018587335,  // c[1]: cos 2 pi 15/7
        0.9749279121818236,  // c[2]: -sin 2 pi 12/7
        0.4338837391175581,  // c[3]: sin 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 15/7
        0.2225209339563144,  // c[5]: -cos 2 pi 12/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
        0.20124858610393936,  // c[8]: P[3] of 43
        0.24532144471548137,  // c[9]: P[6] of 43
        0.23875651933592446,  // c[10]: -Q[3] of 43
        0.19319176405051375,  // c[11]: -Q[6] of 43
        0.3012377482182514,  // c[12]: P[1] of 43
        0.3100587997761174,  // c[13]: Q[10] of 43
        0.08222826754004824,  // c[14]: Q[1] of 43
        0.03700283253527918,  // c[15]: P[10] of 43
        0.30825588409410104,  // c[16]: -Q[13] of 43
        0.23076057628931884,  // c[17]: P[4] of 43
        0.049839531053216354,  // c[18]: P[13] of 43
        0.2103692595529628,  // c[19]: Q[4] of 43
        0.10490468278634746,  // c[20]: Q[9] of 43
        0.30868217300913287,  // c[21]: P[12] of 43
        0.29410997341765915,  // c[22]: -P[9] of 43
        0.04712732753509521,  // c[23]: Q[12] of 43
        0.16498076041582113,  // c[24]: Q[5] of 43
        0.3042741226030731,  // c[25]: -P[16] of 43
        0.26511698856704335,  // c[26]: -P[5] of 43
        0.07016357494006686,  // c[27]: -Q[16] of 43
        0.29230673527015266,  // c[28]: P[19] of 43
        0.3115158140914036,  // c[29]: Q[2] of 43
        0.10982914663214519,  // c[30]: Q[19] of 43
        0.02153059463206762,  // c[31]: P[2] of 43
        0.06938393070305333,  // c[32]: -P[17] of 43
        0.3083663744032671,  // c[33]: Q[8] of 43
        0.3044528520057486,  // c[34]: -Q[17] of 43
        0.04915127741599876,  // c[35]: P[8] of 43
        0.15718049159887415,  // c[36]: Q[11] of 43
        0.008407870561774193,  // c[37]: P[20] of 43
        0.2698146808366376,  // c[38]: -P[11] of 43
        0.31214576185951465,  // c[39]: -Q[20] of 43
        0.26976291906470395,  // c[40]: Q[15] of 43
        0.18645814945888683,  // c[41]: P[18] of 43
        0.15726931179327497,  // c[42]: P[15] of 43
        0.25047759866823976,  // c[43]: -Q[18] of 43
        0.023809523809523808,  // c[44]: 1/42
        0.2301120958697675,  // c[45]: P[14] of 43
        0.31109878185126716,  // c[46]: -P[7] of 43
        0.21107840313178253,  // c[47]: Q[14] of 43
        0.026892691663313772,  // c[48]: -Q[7] of 43
        0.15612948867385715,  // c[49]: -beta of 43
        0.18279925930237648,  // c[50]: sin 2 pi 1/3 times Q[14] of 43
        0.023289754156571717,  // c[51]: sin 2 pi 1/3 times -Q[7] of 43
        0.19928292074129883,  // c[52]: sin 2 pi 1/3 times P[14] of 43
        0.2694194481695906,  // c[53]: sin 2 pi 1/3 times -P[7] of 43
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x42_41_40_39 = io.in(42, 41, 40, 39);
        // input stage
        const Q t0 = x1_2_3_4 + x42_41_40_39;
        const Q t1 = x1_2_3_4 - x42_41_40_39;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x38_37_36_35 = io.in(38, 37, 36, 35);
        const Q t2 = x5_6_7_8 + x38_37_36_35;
        const Q t3 = x5_6_7_8 - x38_37_36_35;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x34_33_32_31 = io.in(34, 33, 32, 31);
        const Q t4 = x9_10_11_12 + x34_33_32_31;
        const Q t5 = x9_10_11_12 - x34_33_32_31;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x30_29_28_27 = io.in(30, 29, 28, 27);
        const Q t6 = x13_14_15_16 + x30_29_28_27;
        const Q t7 = x13_14_15_16 - x30_29_28_27;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x26_25_24_23 = io.in(26, 25, 24, 23);
        const Q t8 = x17_18_19_20 + x26_25_24_23;
        const Q t9 = x17_18_19_20 - x26_25_24_23;
        const V x21 = io.in(21);
        const V x22 = io.in(22);
        const V t10 = x21 + x22;
        const V t11 = x21 - x22;
        const Q t12 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t13 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t14 = shuffled<2, 3, 4, 5>(t12, t13);
        const Q t15 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t16 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t17 = shuffled<2, 3, 4, 5>(t15, t16);
        const Q t18 = flipped<0, 1, 0, 1>(t17);
        // real block of 7, multiplier 3
        const Q t19 = t14 + t18;
        const Q t20 = t14 - t18;
        const Q t21 = shuffled<1, 5, 2, 6>(t0, t1);
        const Q t22 = flipped<0, 1, 0, 0>(t21);
        const P t23 = joined(t10, t11);
        const P t24 = part<1>(t13);
        const Q t25 = joined(t23, t24);
        const Q t26 = t22 + t25;
        const Q t27 = flipped<0, 0, 1, 0>(t25);
        const Q t28 = flipped<1, 1, 0, 1>(t22);
        const Q t29 = t27 + t28;
        const Q t30 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t31 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t32 = shuffled<2, 3, 6, 7>(t30, t31);
        const Q t33 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t34 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t35 = shuffled<2, 3, 6, 7>(t33, t34);
        const Q t36 = t32 + t35;
        const Q t37 = flipped<0, 0, 0, 1>(t32);
        const Q t38 = flipped<0, 0, 0, 1>(t35);
        const Q t39 = t37 - t38;
        const P t40 = part<0>(t31);
        const P t41 = part<0>(t6);
        const P t42 = part<0>(t7);
        const P t43 = shuffled<0, 2>(t41, t42);
        // real block of 7, multiplier 3
        const P t44 = t40 + t43;
        const P t45 = t40 - t43;
        const P t46 = shuffled<1, 3>(t41, t42);
        const P t47 = part<0>(t34);
        const P t48 = flipped<0, 1>(t47);
        const P t49 = t46 + t48;
        const P t50 = flipped<1, 0>(t46);
        const P t51 = t47 + t50;
        const P t52 = part<1>(t6);
        const P t53 = part<1>(t7);
        const P t54 = shuffled<0, 2>(t52, t53);
        const P t55 = part<0>(t33);
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        const Q t58 = flipped<0, 0, 0, 1>(t26);
        // real block of 7, multiplier 3
        const Q t59 = t19 + t58;
        const Q t60 = flipped<0, 0, 0, 1>(t36);
        const Q t61 = t59 + t60;
        const Q t62 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t63 = shuffled<0, 1, 4, 5>(t62, t15);
        const Q t64 = c[0] * t19;
        const Q t65 = t63 - t64;
        const Q t66 = Q(c[1], c[1], c[1], -c[1]) * t26;
        const Q t67 = t65 + t66;
        const Q t68 = c[2] * t39;
        const Q t69 = c[3] * t20;
        const Q t70 = t68 - t69;
        const Q t71 = c[4] * t29;
        const Q t72 = t70 - t71;
        const Q t73 = c[1] * t19;
        const Q t74 = Q(c[5], c[5], c[5], -c[5]) * t26;
        const Q t75 = t73 - t74;
        const Q t76 = Q(c[0], c[0], c[0], -c[0]) * t36;
        const Q t77 = t75 - t76;
        const Q t78 = c[4] * t20;
        const Q t79 = c[2] * t29;
        const Q t80 = t78 - t79;
        const Q t81 = c[3] * t39;
        const Q t82 = t80 - t81;
        const Q t83 = c[5] * t19;
        const Q t84 = t63 - t83;
        const Q t85 = Q(c[0], c[0], c[0], -c[0]) * t26;
        const Q t86 = t84 - t85;
        const Q t87 = c[2] * t20;
        const Q t88 = c[3] * t29;
        const Q t89 = t87 + t88;
        const Q t90 = c[4] * t39;
        const Q t91 = t89 + t90;
        // real block of 7, multiplier 3
        const P t92 = t44 + t49;
        const P t93 = t92 + t56;
        const P t94 = part<1>(t16);
        const P t95 = P(-c[0], c[0]) * t44;
        const P t96 = t94 + t95;
        const P t97 = c[1] * t49;
        const P t98 = flipped<0, 1>(t96);
        const P t99 = t97 + t98;
        const P t100 = P(-c[3], c[3]) * t45;
        const P t101 = c[4] * t51;
        const P t102 = shuffled<0, 3>(t100, t101);
        const P t103 = c[2] * t57;
        const P t104 = t102 + t103;
        const P t105 = shuffled<0, 3>(t101, t100);
        const P t106 = t104 - t105;
        const P t107 = c[1] * t44;
        const P t108 = c[5] * t49;
        const P t109 = t107 - t108;
        const P t110 = c[0] * t56;
        const P t111 = t109 - t110;
        const P t112 = c[4] * t45;
        const P t113 = P(-c[2], c[2]) * t51;
        const P t114 = t112 + t113;
        const P t115 = c[3] * t57;
        const P t116 = t114 - t115;
        const P t117 = P(-c[5], c[5]) * t44;
        const P t118 = t94 + t117;
        const P t119 = P(-c[0], c[0]) * t49;
        const P t120 = t118 + t119;
        const P t121 = c[3] * t51;
        const P t122 = P(c[2], -c[2]) * t45;
        const P t123 = t121 + t122;
        const P t124 = P(c[4], -c[4]) * t57;
        const P t125 = t123 + t124;
        // real block of 7, multiplier 3
        const Q t126 = t61 + t63;
        const P t127 = flipped<0, 1>(t94);
        // real block of 7, multiplier 3
        const P t128 = t93 + t127;
        const P t129 = part<1>(t126);
        // real block of 3
        const P t130 = t129 + t128;
        const P t131 = t129 - t128;
        const P t132 = part<0>(t126);
        const P t133 = t130 + t132;
        const P t134 = c[6] * t130;
        const P t135 = t132 - t134;
        // real block of 7, multiplier 3
        const Q t136 = Q(c[5], c[5], c[5], -c[5]) * t36;
        const Q t137 = t67 - t136;
        // real block of 7, multiplier 3
        const P t138 = c[5] * t56;
        const P t139 = t99 - t138;
        const Q t140 = shuffled<0, 4, 2, 6>(t137, t72);
        const Q t141 = shuffled<1, 5, 3, 7>(t137, t72);
        const Q t142 = shuffled<2, 3, 6, 7>(t140, t141);
        const P t143 = shuffled<0, 2>(t139, t106);
        const P t144 = shuffled<1, 3>(t139, t106);
        const Q t145 = joined(t143, t144);
        // complex block of 3
        const Q t146 = t142 + t145;
        const Q t147 = t142 - t145;
        // real block of 7, multiplier 3
        const Q t148 = Q(c[1], c[1], c[1], -c[1]) * t36;
        const Q t149 = t86 + t148;
        // real block of 7, multiplier 3
        const P t150 = c[1] * t56;
        const P t151 = flipped<0, 1>(t120);
        const P t152 = t150 + t151;
        const P t153 = shuffled<0, 2>(t152, t125);
        const P t154 = shuffled<1, 3>(t152, t125);
        const Q t155 = joined(t153, t154);
        const Q t156 = shuffled<0, 4, 2, 6>(t149, t91);
        const Q t157 = shuffled<1, 5, 3, 7>(t149, t91);
        const Q t158 = shuffled<2, 3, 6, 7>(t156, t157);
        const Q t159 = flipped<0, 0, 0, 1>(t158);
        // complex block of 3
        const Q t160 = t155 + t159;
        const Q t161 = shuffled<0, 5, 2, 7>(t159, t155);
        const Q t162 = shuffled<0, 5, 2, 7>(t155, t159);
        const Q t163 = t161 - t162;
        const Q t164 = shuffled<0, 1, 4, 5>(t140, t141);
        // complex block of 3
        const Q t165 = t146 + t164;
        const Q t166 = shuffled<0, 1, 4, 5>(t156, t157);
        const Q t167 = flipped<0, 0, 0, 1>(t166);
        // complex block of 3
        const Q t168 = t160 + t167;
        // complex block of 3
        const Q t169 = c[6] * t146;
        const Q t170 = t164 - t169;
        const Q t171 = Q(-c[7], c[7], -c[7], c[7]) * t147;
        const Q t172 = shuffled<1, 0, 3, 2>(t171);
        const Q t173 = t170 + t172;
        const Q t174 = t170 - t172;
        const Q t175 = flipped<0, 1, 0, 1>(t167);
        // complex block of 3
        const Q t176 = Q(-c[6], c[6], -c[6], c[6]) * t160;
        const Q t177 = t175 + t176;
        const Q t178 = Q(-c[7], c[7], c[7], -c[7]) * t163;
        const Q t179 = shuffled<1, 0, 3, 2>(t178);
        const Q t180 = t177 + t179;
        const Q t181 = flipped<1, 1, 1, 0>(t179);
        const Q t182 = flipped<0, 0, 0, 1>(t177);
        const Q t183 = t181 + t182;
        // real block of 7, multiplier 3
        const Q t184 = t77 + t63;
        // real block of 7, multiplier 3
        const P t185 = t111 + t127;
        const Q t186 = shuffled<0, 4, 2, 6>(t184, t82);
        const Q t187 = shuffled<1, 5, 3, 7>(t184, t82);
        const Q t188 = shuffled<2, 3, 6, 7>(t186, t187);
        const P t189 = shuffled<0, 2>(t185, t116);
        const P t190 = shuffled<1, 3>(t185, t116);
        const Q t191 = joined(t189, t190);
        // complex block of 3
        const Q t192 = t188 + t191;
        const Q t193 = t188 - t191;
        const Q t194 = shuffled<0, 1, 4, 5>(t186, t187);
        const Q t195 = t192 + t194;
        const Q t196 = c[6] * t192;
        const Q t197 = t194 - t196;
        const Q t198 = Q(-c[7], c[7], -c[7], c[7]) * t193;
        const Q t199 = shuffled<1, 0, 3, 2>(t198);
        const Q t200 = t197 + t199;
        const Q t201 = t197 - t199;
        const V x0 = io.in(0);
        const V t202 = part<0>(t133);
        // spectrum block of 43
        const V t203 = c[44] * t202;
        const V t204 = x0 - t203;
        // real block of 3
        const P t205 = c[7] * t131;
        const P t206 = shuffled<0, 3>(t135, t205);
        // spectrum block of 43
        const P t207 = P(c[45], c[46]) * t206;
        const P t208 = shuffled<0, 3>(t205, t135);
        const P t209 = P(c[47], -c[48]) * t208;
        const P t210 = t207 + t209;
        const V t211 = part<1>(t133);
        const V t212 = -c[49] * t211;
        const P t213 = joined(t204, t212);
        // spectrum block of 3, multiplier 2
        const P t214 = t210 + t213;
        const P t215 = flipped<0, 1>(t213);
        const P t216 = P(-c[6], c[6]) * t210;
        const P t217 = t215 + t216;
        const P t218 = P(c[50], c[51]) * t206;
        const P t219 = P(-c[52], c[53]) * t208;
        const P t220 = t218 + t219;
        const P t221 = flipped<1, 0>(t220);
        const P t222 = t217 + t221;
        const V t223 = part<0>(t222);
        const V t224 = part<1>(t222);
        // spectrum block of 2
        const V t225 = t223 - t224;
        const V t226 = t223 + t224;
        const P t227 = flipped<0, 1>(t217);
        // spectrum block of 3, multiplier 2
        const P t228 = t220 + t227;
        const P t229 = shuffled<0, 2>(t214, t228);
        const P t230 = shuffled<1, 3>(t214, t228);
        // spectrum block of 2
        const P t231 = t229 + t230;
        const P t232 = t229 - t230;
        const Q t233 = shuffled<1, 0, 3, 2>(t168);
        const Q t234 = shuffled<2, 3, 4, 5>(t233, t165);
        // spectrum block of 43
        const Q t235 = Q(c[8], c[8], c[9], c[9]) * t234;
        const Q t236 = shuffled<1, 0, 3, 2>(t234);
        const Q t237 = Q(-c[10], c[10], c[11], -c[11]) * t236;
        const Q t238 = t235 + t237;
        const Q t239 = shuffled<2, 3, 4, 5>(t173, t180);
        const Q t240 = shuffled<1, 0, 3, 2>(t239);
        const Q t241 = Q(c[12], c[12], c[13], c[13]) * t240;
        const Q t242 = Q(c[14], -c[14], c[15], -c[15]) * t239;
        const Q t243 = t241 + t242;
        const Q t244 = shuffled<2, 3, 4, 5>(t174, t183);
        const Q t245 = Q(c[16], -c[16], c[17], c[17]) * t244;
        const Q t246 = shuffled<1, 0, 3, 2>(t244);
        const Q t247 = Q(c[18], c[18], -c[19], c[19]) * t246;
        const Q t248 = t245 + t247;
        const Q t249 = flipped<1, 1, 0, 0>(t248);
        const Q t250 = flipped<0, 0, 0, 1>(t243);
        // complex block of 3, multiplier 2
        const Q t251 = t249 + t250;
        const Q t252 = flipped<1, 1, 1, 0>(t249);
        const Q t253 = t243 + t252;
        const Q t254 = shuffled<2, 3, 0, 1>(t195);
        // spectrum block of 43
        const Q t255 = Q(c[20], c[20], c[21], c[21]) * t254;
        const Q t256 = shuffled<1, 0, 3, 2>(t254);
        const Q t257 = Q(-c[22], c[22], -c[23], c[23]) * t256;
        const Q t258 = t255 + t257;
        const Q t259 = shuffled<2, 3, 0, 1>(t200);
        const Q t260 = Q(c[24], c[24], c[25], c[25]) * t259;
        const Q t261 = shuffled<1, 0, 3, 2>(t259);
        const Q t262 = Q(c[26], -c[26], c[27], -c[27]) * t261;
        const Q t263 = t260 + t262;
        const Q t264 = shuffled<2, 3, 0, 1>(t201);
        const Q t265 = shuffled<1, 0, 3, 2>(t264);
        const Q t266 = Q(-c[28], c[28], c[29], c[29]) * t265;
        const Q t267 = Q(c[30], c[30], c[31], -c[31]) * t264;
        const Q t268 = t266 + t267;
        const Q t269 = flipped<0, 0, 1, 0>(t263);
        // complex block of 3, multiplier 2
        const Q t270 = t269 + t268;
        const Q t271 = flipped<0, 1, 0, 0>(t268);
        const Q t272 = flipped<1, 0, 1, 1>(t269);
        const Q t273 = t271 + t272;
        const Q t274 = shuffled<2, 3, 4, 5>(t183, t174);
        const Q t275 = shuffled<1, 0, 3, 2>(t274);
        // spectrum block of 43
        const Q t276 = Q(c[32], -c[32], c[33], c[33]) * t275;
        const Q t277 = Q(c[34], c[34], c[35], -c[35]) * t274;
        const Q t278 = t276 + t277;
        const Q t279 = shuffled<2, 3, 4, 5>(t180, t173);
        const Q t280 = Q(c[36], c[36], c[37], c[37]) * t279;
        const Q t281 = shuffled<1, 0, 3, 2>(t279);
        const Q t282 = Q(-c[38], c[38], c[39], -c[39]) * t281;
        const Q t283 = t280 + t282;
        const Q t284 = flipped<1, 0, 0, 1>(t278);
        // complex block of 3, multiplier 2
        const Q t285 = t283 + t284;
        const Q t286 = flipped<0, 1, 0, 0>(t283);
        const Q t287 = flipped<1, 0, 1, 1>(t284);
        const Q t288 = t286 + t287;
        const Q t289 = shuffled<2, 3, 4, 5>(t165, t168);
        // spectrum block of 43
        const Q t290 = Q(c[40], -c[40], c[41], c[41]) * t289;
        const Q t291 = shuffled<1, 0, 3, 2>(t289);
        const Q t292 = Q(c[42], c[42], -c[43], c[43]) * t291;
        const Q t293 = t290 + t292;
        // complex block of 3, multiplier 2
        const Q t294 = t285 + t238;
        const Q t295 = c[6] * t285;
        const Q t296 = t238 - t295;
        const Q t297 = Q(c[7], c[7], -c[7], c[7]) * t288;
        const Q t298 = shuffled<1, 0, 3, 2>(t297);
        const Q t299 = t296 - t298;
        const Q t300 = t296 + t298;
        const Q t301 = flipped<0, 0, 0, 1>(t270);
        // complex block of 3, multiplier 2
        const Q t302 = t258 + t301;
        const Q t303 = Q(-c[6], c[6], -c[6], c[6]) * t270;
        const Q t304 = flipped<0, 1, 0, 0>(t258);
        const Q t305 = t303 + t304;
        const Q t306 = Q(-c[7], c[7], c[7], c[7]) * t273;
        const Q t307 = shuffled<1, 0, 3, 2>(t306);
        const Q t308 = t305 - t307;
        const Q t309 = t305 + t307;
        const Q t310 = flipped<0, 0, 0, 1>(t293);
        // complex block of 3, multiplier 2
        const Q t311 = t251 + t310;
        const Q t312 = Q(c[6], c[6], c[6], -c[6]) * t251;
        const Q t313 = t293 - t312;
        const Q t314 = Q(-c[7], c[7], c[7], c[7]) * t253;
        const Q t315 = shuffled<1, 0, 3, 2>(t314);
        const Q t316 = flipped<0, 0, 0, 1>(t313);
        const Q t317 = t315 + t316;
        const Q t318 = flipped<1, 1, 1, 0>(t315);
        const Q t319 = t313 + t318;
        const Q t320 = shuffled<2, 3, 6, 7>(t294, t300);
        const Q t321 = shuffled<0, 1, 4, 5>(t311, t319);
        const Q t322 = flipped<0, 1, 0, 1>(t321);
        // complex block of 2
        const Q t323 = t320 + t322;
        const Q t324 = t320 - t322;
        const Q t325 = shuffled<2, 3, 6, 7>(t302, t309);
        const Q t326 = shuffled<0, 1, 4, 5>(t302, t309);
        const Q t327 = flipped<0, 0, 0, 1>(t326);
        // complex block of 2
        const Q t328 = t325 + t327;
        const Q t329 = t325 - t327;
        const Q t330 = shuffled<2, 3, 6, 7>(t299, t308);
        const Q t331 = shuffled<0, 1, 4, 5>(t317, t308);
        const Q t332 = flipped<0, 1, 0, 1>(t331);
        // complex block of 2
        const Q t333 = t330 + t332;
        const Q t334 = t330 - t332;
        const Q t335 = shuffled<2, 3, 6, 7>(t311, t319);
        const Q t336 = shuffled<0, 1, 4, 5>(t294, t300);
        const Q t337 = flipped<0, 1, 0, 0>(t336);
        // complex block of 2
        const Q t338 = t335 + t337;
        const Q t339 = flipped<1, 1, 1, 0>(t337);
        const Q t340 = flipped<0, 0, 0, 1>(t335);
        const Q t341 = t339 + t340;
        const P t342 = part<0>(t323);
        const P t343 = part<1>(t323);
        const P t344 = shuffled<0, 2>(t342, t343);
        const P t345 = part<0>(t324);
        const P t346 = part<1>(t324);
        const P t347 = shuffled<0, 2>(t345, t346);
        const Q t348 = joined(t344, t347);
        const P t349 = part<0>(t328);
        const P t350 = part<1>(t328);
        const P t351 = shuffled<0, 2>(t349, t350);
        const P t352 = part<0>(t329);
        const P t353 = part<1>(t329);
        const P t354 = shuffled<0, 2>(t352, t353);
        const Q t355 = joined(t351, t354);
        // spectrum block of 7, multiplier 6
        const Q t356 = t348 + t355;
        const Q t357 = c[1] * t348;
        const Q t358 = c[5] * t355;
        const Q t359 = t357 - t358;
        const P t360 = part<0>(t338);
        const P t361 = part<1>(t338);
        const P t362 = shuffled<0, 2>(t360, t361);
        const P t363 = part<0>(t341);
        const P t364 = part<1>(t341);
        const P t365 = shuffled<0, 2>(t363, t364);
        const Q t366 = joined(t362, t365);
        const Q t367 = t356 + t366;
        const Q t368 = c[0] * t366;
        const Q t369 = t359 - t368;
        const P t370 = shuffled<1, 3>(t342, t343);
        const P t371 = shuffled<1, 3>(t345, t346);
        const Q t372 = joined(t370, t371);
        const Q t373 = c[4] * t372;
        const P t374 = shuffled<1, 3>(t349, t350);
        const P t375 = shuffled<1, 3>(t352, t353);
        const Q t376 = joined(t374, t375);
        const Q t377 = c[2] * t376;
        const Q t378 = t373 + t377;
        const Q t379 = joined(t231, t232);
        const Q t380 = c[5] * t348;
        const Q t381 = t379 - t380;
        const Q t382 = c[0] * t355;
        const Q t383 = t381 - t382;
        const Q t384 = c[2] * t372;
        const Q t385 = c[3] * t376;
        const Q t386 = t384 - t385;
        const Q t387 = c[0] * t348;
        const Q t388 = t379 - t387;
        const Q t389 = c[1] * t355;
        const Q t390 = t388 + t389;
        const Q t391 = c[3] * t372;
        const Q t392 = c[4] * t376;
        const Q t393 = t391 - t392;
        const Q t394 = t367 + t379;
        io.out(42, 37, 1, 6, t394);
        const Q t395 = t369 + t379;
        const P t396 = shuffled<1, 3>(t360, t361);
        const P t397 = shuffled<1, 3>(t363, t364);
        const Q t398 = joined(t396, t397);
        const Q t399 = Q(c[3], -c[3], c[3], c[3]) * t398;
        const Q t400 = t378 + t399;
        const Q t401 = t395 - t400;
        io.out(2, 12, 41, 31, t401);
        const Q t402 = t395 + t400;
        io.out(22, 3, 21, 40, t402);
        const Q t403 = c[1] * t366;
        const Q t404 = t383 + t403;
        const Q t405 = Q(c[4], -c[4], c[4], c[4]) * t398;
        const Q t406 = t386 - t405;
        const Q t407 = t404 - t406;
        io.out(39, 19, 4, 24, t407);
        const Q t408 = t404 + t406;
        io.out(32, 20, 11, 23, t408);
        const Q t409 = c[5] * t366;
        const Q t410 = t390 - t409;
        const Q t411 = Q(c[2], -c[2], c[2], c[2]) * t398;
        const Q t412 = t393 + t411;
        const Q t413 = t410 - t412;
        io.out(8, 5, 35, 38, t413);
        const Q t414 = t410 + t412;
        io.out(27, 33, 16, 10, t414);
        const P t415 = part<1>(t317);
        const P t416 = part<0>(t299);
        const P t417 = flipped<0, 1>(t416);
        // complex block of 2
        const P t418 = t415 + t417;
        const P t419 = t415 - t417;
        const P t420 = part<0>(t333);
        const P t421 = part<0>(t334);
        const P t422 = shuffled<0, 2>(t420, t421);
        const P t423 = part<1>(t333);
        const P t424 = part<1>(t334);
        const P t425 = shuffled<0, 2>(t423, t424);
        // spectrum block of 7, multiplier 6
        const P t426 = t422 + t425;
        const P t427 = c[1] * t422;
        const P t428 = c[5] * t425;
        const P t429 = t427 - t428;
        const P t430 = shuffled<0, 2>(t418, t419);
        const P t431 = t426 + t430;
        const P t432 = c[0] * t430;
        const P t433 = t429 - t432;
        const P t434 = shuffled<1, 3>(t420, t421);
        const P t435 = c[4] * t434;
        const P t436 = shuffled<1, 3>(t423, t424);
        const P t437 = c[2] * t436;
        const P t438 = t435 + t437;
        const P t439 = joined(t225, t226);
        const P t440 = c[5] * t422;
        const P t441 = t439 - t440;
        const P t442 = c[0] * t425;
        const P t443 = t441 - t442;
        const P t444 = c[2] * t434;
        const P t445 = c[3] * t436;
        const P t446 = t444 - t445;
        const P t447 = c[0] * t422;
        const P t448 = t439 - t447;
        const P t449 = c[1] * t425;
        const P t450 = t448 + t449;
        const P t451 = c[3] * t434;
        const P t452 = c[4] * t436;
        const P t453 = t451 - t452;
        const P t454 = t431 + t439;
        io.out(7, 36, t454);
        const P t455 = t433 + t439;
        const P t456 = shuffled<1, 3>(t418, t419);
        const P t457 = c[3] * t456;
        const P t458 = t438 + t457;
        const P t459 = t455 - t458;
        io.out(29, 14, t459);
        const P t460 = t455 + t458;
        io.out(18, 25, t460);
        const P t461 = c[1] * t430;
        const P t462 = t443 + t461;
        const P t463 = c[4] * t456;
        const P t464 = t446 - t463;
        const P t465 = t462 - t464;
        io.out(28, 15, t465);
        const P t466 = t462 + t464;
        io.out(34, 9, t466);
        const P t467 = c[5] * t430;
        const P t468 = t450 - t467;
        const P t469 = c[2] * t456;
        const P t470 = t453 + t469;
        const P t471 = t468 - t470;
        io.out(30, 13, t471);
        const P t472 = t468 + t470;
        io.out(26, 17, t472);
        // spectrum block of 43
        const V t473 = x0 + t202;
        io.out(0, t473);
    }
};

}  // namespace zulg
