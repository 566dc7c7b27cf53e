// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 43.
// Forward DFT of 43 real points, Rader 2, 7, 3; up to four lanes to a register.
// 90 sums, 75 differences, 111 products of registers, which do the 927 steps of the graph, those with
// `scale` included; 136 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<43> {
    static constexpr int steps = 927;  // with `scale`
    static constexpr double inverseRoot = 0.15249857033260467;  // 1/sqrt(43), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 6/7
        0.2225209339563144,  // c[1]: -cos 2 pi 30/7
        0.9009688679024191,  // c[2]: -cos 2 pi 24/7
        0.7818314824680298,  // c[3]: -sin 2 pi 6/7
        0.9749279121818236,  // c[4]: sin 2 pi 30/7
        0.4338837391175581,  // c[5]: sin 2 pi 24/7
        0.5,  // c[6]: -cos 2 pi 2/3
        0.8660254037844386,  // c[7]: -sin 2 pi 2/3
        0.02153059463206762,  // c[8]: P[2] of 43
        0.26511698856704335,  // c[9]: P[5] of 43
        0.3115158140914036,  // c[10]: Q[2] of 43
        0.16498076041582113,  // c[11]: Q[5] of 43
        0.07016357494006686,  // c[12]: -Q[16] of 43
        0.10982914663214519,  // c[13]: Q[19] of 43
        0.3042741226030731,  // c[14]: -P[16] of 43
        0.29230673527015266,  // c[15]: -P[19] of 43
        0.04712732753509521,  // c[16]: Q[12] of 43
        0.10490468278634746,  // c[17]: Q[9] of 43
        0.30868217300913287,  // c[18]: P[12] of 43
        0.29410997341765915,  // c[19]: P[9] of 43
        0.03700283253527918,  // c[20]: P[10] of 43
        0.2698146808366376,  // c[21]: P[11] of 43
        0.3100587997761174,  // c[22]: Q[10] of 43
        0.15718049159887415,  // c[23]: Q[11] of 43
        0.23076057628931884,  // c[24]: P[4] of 43
        0.06938393070305333,  // c[25]: P[17] of 43
        0.2103692595529628,  // c[26]: Q[4] of 43
        0.3044528520057486,  // c[27]: -Q[17] of 43
        0.18645814945888683,  // c[28]: P[18] of 43
        0.20124858610393936,  // c[29]: -P[3] of 43
        0.25047759866823976,  // c[30]: -Q[18] of 43
        0.23875651933592446,  // c[31]: -Q[3] of 43
        0.3083663744032671,  // c[32]: Q[8] of 43
        0.049839531053216354,  // c[33]: -P[13] of 43
        0.04915127741599876,  // c[34]: P[8] of 43
        0.30825588409410104,  // c[35]: -Q[13] of 43
        0.31214576185951465,  // c[36]: -Q[20] of 43
        0.3012377482182514,  // c[37]: -P[1] of 43
        0.008407870561774193,  // c[38]: P[20] of 43
        0.08222826754004824,  // c[39]: Q[1] of 43
        0.19319176405051375,  // c[40]: -Q[6] of 43
        0.15726931179327497,  // c[41]: -P[15] of 43
        0.24532144471548137,  // c[42]: P[6] of 43
        0.26976291906470395,  // c[43]: Q[15] of 43
        0.023809523809523808,  // c[44]: 1/42
        0.2301120958697675,  // c[45]: P[14] of 43
        0.31109878185126716,  // c[46]: P[7] of 43
        0.21107840313178253,  // c[47]: Q[14] of 43
        0.026892691663313772,  // c[48]: -Q[7] of 43
        0.19928292074129883,  // c[49]: -sin 2 pi 2/3 times P[14] of 43
        0.2694194481695906,  // c[50]: -sin 2 pi 2/3 times P[7] of 43
        0.18279925930237648,  // c[51]: -sin 2 pi 2/3 times Q[14] of 43
        0.023289754156571717,  // c[52]: -sin 2 pi 2/3 times -Q[7] of 43
        0.15612948867385715,  // c[53]: -beta of 43
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x1_9_38_41 = io.in(1, 9, 38, 41);
        const Q x42_34_5_2 = io.in(42, 34, 5, 2);
        // real block of 2
        const Q t0 = x1_9_38_41 + x42_34_5_2;
        const Q t1 = x1_9_38_41 - x42_34_5_2;
        const Q x23_35_14_40 = io.in(23, 35, 14, 40);
        const Q x20_8_29_3 = io.in(20, 8, 29, 3);
        // real block of 2
        const Q t2 = x23_35_14_40 + x20_8_29_3;
        const Q t3 = x23_35_14_40 - x20_8_29_3;
        const Q x25_10_4_36 = io.in(25, 10, 4, 36);
        const Q x18_33_39_7 = io.in(18, 33, 39, 7);
        // real block of 2
        const Q t4 = x25_10_4_36 + x18_33_39_7;
        const Q t5 = x25_10_4_36 - x18_33_39_7;
        const Q x16_15_6_11 = io.in(16, 15, 6, 11);
        const Q x27_28_37_32 = io.in(27, 28, 37, 32);
        // real block of 2
        const Q t6 = x16_15_6_11 + x27_28_37_32;
        const Q t7 = x16_15_6_11 - x27_28_37_32;
        const Q x13_31_21_17 = io.in(13, 31, 21, 17);
        const Q x30_12_22_26 = io.in(30, 12, 22, 26);
        // real block of 2
        const Q t8 = x13_31_21_17 + x30_12_22_26;
        const Q t9 = x13_31_21_17 - x30_12_22_26;
        const V x24 = io.in(24);
        const V x19 = io.in(19);
        // real block of 2
        const V t10 = x24 + x19;
        const V t11 = x24 - x19;
        const Q t12 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t13 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t14 = shuffled<2, 3, 6, 7>(t12, t13);
        const Q t15 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t16 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t17 = shuffled<2, 3, 4, 5>(t15, t16);
        // real block of 7, multiplier 6
        const Q t18 = t14 + t17;
        const Q t19 = t14 - t17;
        const Q t20 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t21 = shuffled<2, 3, 4, 5>(t20, t12);
        const Q t22 = shuffled<2, 3, 4, 5>(t16, t20);
        const Q t23 = t21 + t22;
        const Q t24 = t21 - t22;
        const Q t25 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t26 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t27 = shuffled<0, 1, 6, 7>(t25, t26);
        const Q t28 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t29 = shuffled<0, 1, 4, 5>(t28, t15);
        const Q t30 = t27 + t29;
        const P t31 = part<0>(t26);
        const P t32 = part<1>(t28);
        // real block of 7, multiplier 6
        const P t33 = t31 + t32;
        const P t34 = t31 - t32;
        const P t35 = part<0>(t13);
        const P t36 = joined(t10, t11);
        const P t37 = t35 + t36;
        const P t38 = t35 - t36;
        const P t39 = part<0>(t4);
        const P t40 = part<0>(t5);
        const P t41 = shuffled<1, 3>(t39, t40);
        const P t42 = part<1>(t0);
        const P t43 = part<1>(t1);
        const P t44 = shuffled<0, 2>(t42, t43);
        const P t45 = t41 + t44;
        // real block of 7, multiplier 6
        const Q t46 = t27 - t29;
        const Q t47 = t18 + t23;
        const Q t48 = t47 + t30;
        const Q t49 = c[0] * t18;
        const Q t50 = c[1] * t23;
        const Q t51 = t49 - t50;
        const Q t52 = c[2] * t30;
        const Q t53 = t51 - t52;
        const Q t54 = c[3] * t19;
        const Q t55 = c[4] * t24;
        const Q t56 = t54 - t55;
        const Q t57 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t58 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t59 = shuffled<0, 1, 6, 7>(t57, t58);
        const Q t60 = c[1] * t18;
        const Q t61 = t59 - t60;
        const Q t62 = c[2] * t23;
        const Q t63 = t61 - t62;
        const Q t64 = c[4] * t19;
        const Q t65 = c[5] * t24;
        const Q t66 = t64 + t65;
        const Q t67 = c[2] * t18;
        const Q t68 = t59 - t67;
        const Q t69 = c[0] * t23;
        const Q t70 = t68 + t69;
        const Q t71 = c[5] * t19;
        const Q t72 = c[3] * t24;
        const Q t73 = t71 + t72;
        // real block of 7, multiplier 6
        const P t74 = t41 - t44;
        const P t75 = t33 + t37;
        const P t76 = t75 + t45;
        const P t77 = c[0] * t33;
        const P t78 = c[1] * t37;
        const P t79 = t77 - t78;
        const P t80 = c[2] * t45;
        const P t81 = t79 - t80;
        const P t82 = c[3] * t34;
        const P t83 = c[4] * t38;
        const P t84 = t82 - t83;
        const P t85 = part<1>(t25);
        const P t86 = c[1] * t33;
        const P t87 = t85 - t86;
        const P t88 = c[2] * t37;
        const P t89 = t87 - t88;
        const P t90 = c[4] * t34;
        const P t91 = c[5] * t38;
        const P t92 = t90 + t91;
        const P t93 = c[2] * t33;
        const P t94 = t85 - t93;
        const P t95 = c[0] * t37;
        const P t96 = t94 + t95;
        const P t97 = c[5] * t34;
        const P t98 = c[3] * t38;
        const P t99 = t97 + t98;
        // real block of 7, multiplier 6
        const Q t100 = t48 + t59;
        // real block of 7, multiplier 6
        const P t101 = t76 + t85;
        const P t102 = part<1>(t100);
        // real block of 3, multiplier 2
        const P t103 = t102 + t101;
        const P t104 = t102 - t101;
        const P t105 = part<0>(t100);
        const P t106 = t103 + t105;
        const P t107 = c[6] * t103;
        const P t108 = t105 - t107;
        // real block of 7, multiplier 6
        const Q t109 = t53 + t59;
        const Q t110 = c[5] * t46;
        const Q t111 = t56 - t110;
        // real block of 7, multiplier 6
        const P t112 = t81 + t85;
        const P t113 = c[5] * t74;
        const P t114 = t84 - t113;
        const Q t115 = shuffled<0, 4, 2, 6>(t109, t111);
        const Q t116 = shuffled<1, 5, 3, 7>(t109, t111);
        const Q t117 = shuffled<2, 3, 6, 7>(t115, t116);
        const P t118 = shuffled<0, 2>(t112, t114);
        const P t119 = shuffled<1, 3>(t112, t114);
        const Q t120 = joined(t118, t119);
        // complex block of 3, multiplier 2
        const Q t121 = t117 + t120;
        const Q t122 = t117 - t120;
        const Q t123 = shuffled<0, 1, 4, 5>(t115, t116);
        const Q t124 = t121 + t123;
        const Q t125 = c[6] * t121;
        const Q t126 = t123 - t125;
        const Q t127 = Q(-c[7], c[7], -c[7], c[7]) * t122;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = t126 + t128;
        const Q t130 = t126 - t128;
        // real block of 7, multiplier 6
        const Q t131 = c[0] * t30;
        const Q t132 = t63 + t131;
        const Q t133 = c[3] * t46;
        const Q t134 = t66 + t133;
        // real block of 7, multiplier 6
        const P t135 = c[0] * t45;
        const P t136 = t89 + t135;
        const P t137 = c[3] * t74;
        const P t138 = t92 + t137;
        const Q t139 = shuffled<0, 4, 2, 6>(t132, t134);
        const Q t140 = shuffled<1, 5, 3, 7>(t132, t134);
        const Q t141 = shuffled<2, 3, 6, 7>(t139, t140);
        const P t142 = shuffled<0, 2>(t136, t138);
        const P t143 = shuffled<1, 3>(t136, t138);
        const Q t144 = joined(t142, t143);
        // complex block of 3, multiplier 2
        const Q t145 = t141 + t144;
        const Q t146 = t141 - t144;
        const Q t147 = shuffled<0, 1, 4, 5>(t139, t140);
        const Q t148 = t145 + t147;
        const Q t149 = c[6] * t145;
        const Q t150 = t147 - t149;
        const Q t151 = Q(-c[7], c[7], -c[7], c[7]) * t146;
        const Q t152 = shuffled<1, 0, 3, 2>(t151);
        const Q t153 = t150 + t152;
        const Q t154 = t150 - t152;
        // real block of 7, multiplier 6
        const Q t155 = c[1] * t30;
        const Q t156 = t70 - t155;
        const Q t157 = c[4] * t46;
        const Q t158 = t73 - t157;
        // real block of 7, multiplier 6
        const P t159 = c[1] * t45;
        const P t160 = t96 - t159;
        const P t161 = c[4] * t74;
        const P t162 = t99 - t161;
        const Q t163 = shuffled<0, 4, 2, 6>(t156, t158);
        const Q t164 = shuffled<1, 5, 3, 7>(t156, t158);
        const Q t165 = shuffled<2, 3, 6, 7>(t163, t164);
        const P t166 = shuffled<0, 2>(t160, t162);
        const P t167 = shuffled<1, 3>(t160, t162);
        const Q t168 = joined(t166, t167);
        // complex block of 3, multiplier 2
        const Q t169 = t165 + t168;
        const Q t170 = t165 - t168;
        const Q t171 = shuffled<0, 1, 4, 5>(t163, t164);
        const Q t172 = t169 + t171;
        const Q t173 = c[6] * t169;
        const Q t174 = t171 - t173;
        const Q t175 = Q(-c[7], c[7], -c[7], c[7]) * t170;
        const Q t176 = shuffled<1, 0, 3, 2>(t175);
        const Q t177 = t174 + t176;
        const Q t178 = t174 - t176;
        const V x0 = io.in(0);
        const V t179 = part<0>(t106);
        // real block of 43
        const V t180 = x0 + t179;
        io.re(0, t180);
        const V t181 = c[44] * t179;
        const V t182 = x0 - t181;
        // real block of 3, multiplier 2
        const P t183 = c[7] * t104;
        const P t184 = shuffled<0, 3>(t108, t183);
        // real block of 43
        const P t185 = P(c[45], c[46]) * t184;
        const P t186 = shuffled<0, 3>(t183, t108);
        const P t187 = P(-c[47], c[48]) * t186;
        const P t188 = t185 + t187;
        // spectrum block of 3
        const P t189 = P(c[49], c[50]) * t186;
        const P t190 = P(c[51], -c[52]) * t184;
        const P t191 = t189 + t190;
        const V t192 = part<1>(t106);
        // real block of 43
        const V t193 = c[53] * t192;
        const P t194 = joined(t182, t193);
        // spectrum block of 3
        const P t195 = t188 + t194;
        const P t196 = P(-c[6], c[6]) * t188;
        const P t197 = flipped<0, 1>(t194);
        const P t198 = t196 + t197;
        const P t199 = t198 - t191;
        const P t200 = t198 + t191;
        const Q t201 = shuffled<0, 1, 6, 7>(t153, t154);
        // real block of 43
        const Q t202 = Q(c[8], -c[8], c[9], c[9]) * t201;
        const Q t203 = shuffled<1, 0, 3, 2>(t201);
        const Q t204 = Q(c[10], c[10], -c[11], c[11]) * t203;
        const Q t205 = t202 + t204;
        const Q t206 = shuffled<0, 1, 6, 7>(t154, t153);
        const Q t207 = shuffled<1, 0, 3, 2>(t206);
        const Q t208 = Q(c[12], -c[12], c[13], c[13]) * t207;
        const Q t209 = Q(c[14], c[14], c[15], -c[15]) * t206;
        const Q t210 = t208 + t209;
        const Q t211 = shuffled<0, 5, 3, 6>(t205, t210);
        const Q t212 = shuffled<0, 5, 3, 6>(t210, t205);
        const Q t213 = flipped<1, 0, 0, 1>(t212);
        // complex block of 3
        const Q t214 = t211 + t213;
        const Q t215 = flipped<1, 0, 1, 1>(t213);
        const Q t216 = flipped<0, 1, 0, 0>(t211);
        const Q t217 = t215 + t216;
        const Q t218 = shuffled<1, 0, 3, 2>(t148);
        // real block of 43
        const Q t219 = Q(-c[16], c[16], c[17], c[17]) * t218;
        const Q t220 = Q(c[18], c[18], c[19], -c[19]) * t148;
        const Q t221 = t219 + t220;
        const Q t222 = flipped<0, 1, 0, 0>(t214);
        const Q t223 = shuffled<0, 5, 3, 6>(t221, t221);
        // complex block of 3
        const Q t224 = t222 + t223;
        const Q t225 = Q(c[6], -c[6], c[6], c[6]) * t214;
        const Q t226 = t223 - t225;
        const Q t227 = Q(-c[7], -c[7], c[7], c[7]) * t217;
        const Q t228 = shuffled<1, 0, 3, 2>(t227);
        const Q t229 = t226 + t228;
        const Q t230 = t226 - t228;
        // real block of 43
        const Q t231 = Q(c[20], -c[20], c[21], c[21]) * t178;
        const Q t232 = shuffled<1, 0, 3, 2>(t178);
        const Q t233 = Q(c[22], c[22], -c[23], c[23]) * t232;
        const Q t234 = t231 + t233;
        const Q t235 = Q(c[24], c[24], c[25], c[25]) * t177;
        const Q t236 = shuffled<1, 0, 3, 2>(t177);
        const Q t237 = Q(-c[26], c[26], -c[27], c[27]) * t236;
        const Q t238 = t235 + t237;
        const Q t239 = shuffled<0, 5, 3, 6>(t234, t238);
        const Q t240 = shuffled<0, 5, 3, 6>(t238, t234);
        const Q t241 = flipped<1, 0, 0, 0>(t240);
        // complex block of 3
        const Q t242 = t239 - t241;
        // real block of 43
        const Q t243 = Q(c[28], c[28], c[29], c[29]) * t172;
        const Q t244 = shuffled<1, 0, 3, 2>(t172);
        const Q t245 = Q(c[30], -c[30], c[31], -c[31]) * t244;
        const Q t246 = t243 + t245;
        // complex block of 3
        const Q t247 = t241 + t239;
        const Q t248 = shuffled<0, 5, 3, 6>(t246, t246);
        const Q t249 = flipped<0, 0, 0, 1>(t248);
        const Q t250 = t242 + t249;
        const Q t251 = Q(c[6], c[6], c[6], -c[6]) * t242;
        const Q t252 = t248 - t251;
        const Q t253 = shuffled<1, 4, 2, 7>(t129, t129);
        // real block of 43
        const Q t254 = Q(c[32], c[32], -c[33], c[33]) * t253;
        const Q t255 = shuffled<1, 0, 3, 2>(t253);
        const Q t256 = Q(c[34], -c[34], c[35], c[35]) * t255;
        const Q t257 = t254 + t256;
        const Q t258 = shuffled<1, 4, 2, 7>(t130, t130);
        const Q t259 = Q(c[36], -c[36], -c[37], c[37]) * t258;
        const Q t260 = shuffled<1, 0, 3, 2>(t258);
        const Q t261 = Q(c[38], c[38], c[39], c[39]) * t260;
        const Q t262 = t259 + t261;
        const Q t263 = shuffled<0, 5, 3, 6>(t262, t262);
        const Q t264 = shuffled<0, 5, 3, 6>(t257, t257);
        const Q t265 = flipped<1, 0, 0, 0>(t264);
        // complex block of 3
        const Q t266 = t263 - t265;
        const Q t267 = t263 + t265;
        const Q t268 = shuffled<1, 4, 2, 7>(t124, t124);
        // real block of 43
        const Q t269 = Q(c[40], -c[40], -c[41], c[41]) * t268;
        const Q t270 = shuffled<1, 0, 3, 2>(t268);
        const Q t271 = Q(c[42], c[42], c[43], c[43]) * t270;
        const Q t272 = t269 + t271;
        const Q t273 = shuffled<0, 5, 3, 6>(t272, t272);
        // complex block of 3
        const Q t274 = t266 + t273;
        const Q t275 = c[6] * t266;
        const Q t276 = t273 - t275;
        const Q t277 = Q(c[7], -c[7], c[7], -c[7]) * t267;
        const Q t278 = shuffled<1, 0, 3, 2>(t277);
        const Q t279 = t276 + t278;
        const Q t280 = t276 - t278;
        // complex block of 3
        const Q t281 = c[7] * t247;
        const Q t282 = shuffled<1, 0, 3, 2>(t281);
        const Q t283 = flipped<0, 0, 0, 1>(t252);
        const Q t284 = t282 + t283;
        const Q t285 = flipped<0, 0, 0, 1>(t282);
        const Q t286 = t252 - t285;
        const P t287 = part<0>(t274);
        const P t288 = part<1>(t274);
        const P t289 = shuffled<0, 2>(t287, t288);
        const P t290 = part<0>(t279);
        const P t291 = part<1>(t280);
        const P t292 = shuffled<0, 2>(t290, t291);
        const Q t293 = joined(t289, t292);
        const P t294 = part<0>(t224);
        const P t295 = part<1>(t224);
        const P t296 = shuffled<0, 2>(t294, t295);
        const P t297 = part<0>(t229);
        const P t298 = part<1>(t230);
        const P t299 = shuffled<0, 2>(t297, t298);
        const Q t300 = joined(t296, t299);
        // spectrum block of 7, multiplier 3
        const Q t301 = t293 + t300;
        const Q t302 = c[0] * t293;
        const Q t303 = c[1] * t300;
        const Q t304 = t302 - t303;
        const P t305 = part<0>(t280);
        const P t306 = part<1>(t279);
        const P t307 = shuffled<0, 2>(t305, t306);
        const P t308 = part<0>(t230);
        const P t309 = part<1>(t229);
        const P t310 = shuffled<0, 2>(t308, t309);
        // spectrum block of 7, multiplier 3
        const P t311 = t307 + t310;
        const P t312 = c[0] * t307;
        const P t313 = c[1] * t310;
        const P t314 = t312 - t313;
        const P t315 = part<0>(t250);
        const P t316 = part<1>(t250);
        const P t317 = shuffled<0, 2>(t315, t316);
        const P t318 = part<0>(t284);
        const P t319 = part<1>(t286);
        const P t320 = shuffled<0, 2>(t318, t319);
        const Q t321 = joined(t317, t320);
        // spectrum block of 7, multiplier 3
        const Q t322 = t301 + t321;
        const Q t323 = c[2] * t321;
        const Q t324 = t304 - t323;
        const P t325 = part<0>(t286);
        const P t326 = part<1>(t284);
        const P t327 = shuffled<0, 2>(t325, t326);
        // spectrum block of 7, multiplier 3
        const P t328 = t311 + t327;
        const P t329 = c[2] * t327;
        const P t330 = t314 - t329;
        const P t331 = shuffled<1, 3>(t287, t288);
        const P t332 = shuffled<1, 3>(t290, t291);
        const Q t333 = joined(t331, t332);
        // spectrum block of 7, multiplier 3
        const Q t334 = c[3] * t333;
        const P t335 = shuffled<1, 3>(t294, t295);
        const P t336 = shuffled<1, 3>(t297, t298);
        const Q t337 = joined(t335, t336);
        const Q t338 = c[4] * t337;
        const Q t339 = t334 + t338;
        const P t340 = shuffled<0, 3>(t199, t200);
        const Q t341 = joined(t195, t340);
        const Q t342 = Q(c[1], -c[1], c[1], c[1]) * t293;
        const Q t343 = t341 - t342;
        const Q t344 = Q(c[2], -c[2], c[2], c[2]) * t300;
        const Q t345 = t343 - t344;
        const Q t346 = c[4] * t333;
        const Q t347 = c[5] * t337;
        const Q t348 = t346 - t347;
        const Q t349 = Q(c[2], -c[2], c[2], c[2]) * t293;
        const Q t350 = t341 - t349;
        const Q t351 = flipped<0, 1, 0, 0>(t350);
        const Q t352 = c[0] * t300;
        const Q t353 = t351 + t352;
        const Q t354 = c[5] * t333;
        const Q t355 = c[3] * t337;
        const Q t356 = t354 - t355;
        const P t357 = shuffled<1, 3>(t305, t306);
        // spectrum block of 7, multiplier 3
        const P t358 = c[3] * t357;
        const P t359 = shuffled<1, 3>(t308, t309);
        const P t360 = c[4] * t359;
        const P t361 = t358 + t360;
        const P t362 = shuffled<0, 3>(t200, t199);
        const P t363 = c[1] * t307;
        const P t364 = t362 - t363;
        const P t365 = c[2] * t310;
        const P t366 = t364 - t365;
        const P t367 = c[4] * t357;
        const P t368 = c[5] * t359;
        const P t369 = t367 - t368;
        const P t370 = c[2] * t307;
        const P t371 = t362 - t370;
        const P t372 = c[0] * t310;
        const P t373 = t371 + t372;
        const P t374 = c[5] * t357;
        const P t375 = c[3] * t359;
        const P t376 = t374 - t375;
        const Q t377 = flipped<0, 1, 0, 0>(t341);
        // spectrum block of 7, multiplier 3
        const Q t378 = t322 + t377;
        const P t379 = part<0>(t378);
        io.pair(1, t379);
        const Q t380 = t324 + t377;
        const P t381 = shuffled<1, 3>(t315, t316);
        const P t382 = shuffled<1, 3>(t318, t319);
        const Q t383 = joined(t381, t382);
        const Q t384 = Q(c[5], c[5], c[5], -c[5]) * t383;
        const Q t385 = t339 + t384;
        const Q t386 = t380 - t385;
        const P t387 = part<0>(t386);
        io.pair(2, negated<0, 1>(t387));
        const Q t388 = t380 + t385;
        const P t389 = part<0>(t388);
        io.pair(21, t389);
        const Q t390 = flipped<0, 1, 0, 0>(t345);
        const Q t391 = c[0] * t321;
        const Q t392 = t390 + t391;
        const Q t393 = Q(c[3], c[3], c[3], -c[3]) * t383;
        const Q t394 = t348 - t393;
        const Q t395 = t392 - t394;
        const P t396 = part<0>(t395);
        io.pair(4, t396);
        const Q t397 = t392 + t394;
        const P t398 = part<0>(t397);
        io.pair(11, t398);
        const Q t399 = c[1] * t321;
        const Q t400 = t353 - t399;
        const Q t401 = Q(c[4], c[4], c[4], -c[4]) * t383;
        const Q t402 = t356 + t401;
        const Q t403 = t400 - t402;
        const P t404 = part<0>(t403);
        io.pair(8, negated<0, 1>(t404));
        const Q t405 = t400 + t402;
        const P t406 = part<0>(t405);
        io.pair(16, t406);
        // spectrum block of 7, multiplier 3
        const P t407 = t328 + t362;
        const P t408 = part<1>(t378);
        const P t409 = shuffled<0, 3>(t407, t408);
        io.pair(6, t409);
        const P t410 = shuffled<0, 3>(t408, t407);
        io.pair(7, negated<0, 1>(t410));
        const P t411 = t330 + t362;
        const P t412 = shuffled<1, 3>(t325, t326);
        const P t413 = c[5] * t412;
        const P t414 = t361 + t413;
        const P t415 = t411 - t414;
        const P t416 = part<1>(t386);
        const P t417 = shuffled<0, 3>(t415, t416);
        io.pair(12, negated<0, 1>(t417));
        const P t418 = shuffled<0, 3>(t416, t415);
        io.pair(14, t418);
        const P t419 = t411 + t414;
        const P t420 = part<1>(t388);
        const P t421 = shuffled<0, 3>(t419, t420);
        io.pair(3, negated<0, 1>(t421));
        const P t422 = shuffled<0, 3>(t420, t419);
        io.pair(18, negated<0, 1>(t422));
        const P t423 = c[0] * t327;
        const P t424 = t366 + t423;
        const P t425 = c[3] * t412;
        const P t426 = t369 - t425;
        const P t427 = t424 - t426;
        const P t428 = part<1>(t395);
        const P t429 = shuffled<0, 3>(t428, t427);
        io.pair(15, t429);
        const P t430 = shuffled<0, 3>(t427, t428);
        io.pair(19, negated<0, 1>(t430));
        const P t431 = t424 + t426;
        const P t432 = part<1>(t397);
        const P t433 = shuffled<0, 3>(t432, t431);
        io.pair(9, t433);
        const P t434 = shuffled<0, 3>(t431, t432);
        io.pair(20, negated<0, 1>(t434));
        const P t435 = c[1] * t327;
        const P t436 = t373 - t435;
        const P t437 = c[4] * t412;
        const P t438 = t376 + t437;
        const P t439 = t436 - t438;
        const P t440 = part<1>(t403);
        const P t441 = shuffled<0, 3>(t439, t440);
        io.pair(5, negated<0, 1>(t441));
        const P t442 = shuffled<0, 3>(t440, t439);
        io.pair(13, t442);
        const P t443 = t436 + t438;
        const P t444 = part<1>(t405);
        const P t445 = shuffled<0, 3>(t443, t444);
        io.pair(10, t445);
        const P t446 = shuffled<0, 3>(t444, t443);
        io.pair(17, t446);
    }
};

}  // namespace zulg
