// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 43.
// Inverse DFT to 43 real points, Rader 3, 2, 7; up to four lanes to a register.
// 104 sums, 63 differences, 122 products of registers, which do the 969 steps of the graph, those with
// `scale` included; 110 shuffles, 42 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<43> {
    static constexpr int steps = 969;  // with `scale`
    static constexpr double inverseRoot = 0.15249857033260467;  // 1/sqrt(43), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.9009688679024191,  // c[1]: -cos 2 pi 3/7
        0.6234898018587335,  // c[2]: cos 2 pi 15/7
        0.9749279121818236,  // c[3]: -sin 2 pi 12/7
        0.4338837391175581,  // c[4]: sin 2 pi 3/7
        0.7818314824680298,  // c[5]: sin 2 pi 15/7
        0.2225209339563144,  // c[6]: -cos 2 pi 12/7
        0.5,  // c[7]: -cos 2 pi 1/3
        0.8660254037844386,  // c[8]: sin 2 pi 1/3
        0.20124858610393936,  // c[9]: P[3] of 43
        0.24532144471548137,  // c[10]: P[6] of 43
        0.23875651933592446,  // c[11]: -Q[3] of 43
        0.19319176405051375,  // c[12]: -Q[6] of 43
        0.3012377482182514,  // c[13]: P[1] of 43
        0.3100587997761174,  // c[14]: Q[10] of 43
        0.08222826754004824,  // c[15]: Q[1] of 43
        0.03700283253527918,  // c[16]: P[10] of 43
        0.30825588409410104,  // c[17]: -Q[13] of 43
        0.23076057628931884,  // c[18]: P[4] of 43
        0.049839531053216354,  // c[19]: P[13] of 43
        0.2103692595529628,  // c[20]: Q[4] of 43
        0.10490468278634746,  // c[21]: Q[9] of 43
        0.30868217300913287,  // c[22]: P[12] of 43
        0.29410997341765915,  // c[23]: -P[9] of 43
        0.04712732753509521,  // c[24]: Q[12] of 43
        0.16498076041582113,  // c[25]: Q[5] of 43
        0.3042741226030731,  // c[26]: -P[16] of 43
        0.26511698856704335,  // c[27]: -P[5] of 43
        0.07016357494006686,  // c[28]: -Q[16] of 43
        0.29230673527015266,  // c[29]: P[19] of 43
        0.3115158140914036,  // c[30]: Q[2] of 43
        0.10982914663214519,  // c[31]: Q[19] of 43
        0.02153059463206762,  // c[32]: P[2] of 43
        0.06938393070305333,  // c[33]: -P[17] of 43
        0.3083663744032671,  // c[34]: Q[8] of 43
        0.3044528520057486,  // c[35]: -Q[17] of 43
        0.04915127741599876,  // c[36]: P[8] of 43
        0.15718049159887415,  // c[37]: Q[11] of 43
        0.008407870561774193,  // c[38]: P[20] of 43
        0.2698146808366376,  // c[39]: -P[11] of 43
        0.31214576185951465,  // c[40]: -Q[20] of 43
        0.26976291906470395,  // c[41]: Q[15] of 43
        0.18645814945888683,  // c[42]: P[18] of 43
        0.15726931179327497,  // c[43]: P[15] of 43
        0.25047759866823976,  // c[44]: -Q[18] of 43
        0.023809523809523808,  // c[45]: 1/42
        0.2301120958697675,  // c[46]: P[14] of 43
        0.31109878185126716,  // c[47]: -P[7] of 43
        0.21107840313178253,  // c[48]: Q[14] of 43
        0.026892691663313772,  // c[49]: -Q[7] of 43
        0.15612948867385715,  // c[50]: -beta of 43
        0.18279925930237648,  // c[51]: sin 2 pi 1/3 times Q[14] of 43
        0.023289754156571717,  // c[52]: sin 2 pi 1/3 times -Q[7] of 43
        0.19928292074129883,  // c[53]: sin 2 pi 1/3 times P[14] of 43
        0.2694194481695906,  // c[54]: sin 2 pi 1/3 times -P[7] of 43
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const Q x21_2 = io.pairs(21, 2);
        // doubled bins
        const Q t0 = c[0] * x21_2;
        const Q x3_12 = io.pairs(3, 12);
        const Q t1 = c[0] * x3_12;
        const Q t2 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t3 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t4 = flipped<0, 1, 0, 0>(t3);
        // real block of 7, multiplier 3
        const Q t5 = t2 + t4;
        const Q t6 = flipped<1, 1, 1, 0>(t4);
        const Q t7 = flipped<0, 0, 0, 1>(t2);
        const Q t8 = t6 + t7;
        const Q x4_11 = io.pairs(4, 11);
        // doubled bins
        const Q t9 = c[0] * x4_11;
        const Q x19_20 = io.pairs(19, 20);
        const Q t10 = c[0] * x19_20;
        const Q t11 = shuffled<0, 1, 4, 5>(t9, t10);
        const Q t12 = shuffled<2, 3, 6, 7>(t9, t10);
        // real block of 7, multiplier 3
        const Q t13 = t11 + t12;
        const Q t14 = flipped<0, 0, 0, 1>(t11);
        const Q t15 = flipped<0, 0, 0, 1>(t12);
        const Q t16 = t14 - t15;
        const Q x16_8 = io.pairs(16, 8);
        // doubled bins
        const Q t17 = c[0] * x16_8;
        const Q x10_5 = io.pairs(10, 5);
        const Q t18 = c[0] * x10_5;
        const Q t19 = shuffled<0, 1, 4, 5>(t17, t18);
        const Q t20 = shuffled<2, 3, 6, 7>(t17, t18);
        const Q t21 = flipped<0, 1, 0, 1>(t20);
        // real block of 7, multiplier 3
        const Q t22 = t19 + t21;
        const Q t23 = t19 - t21;
        const Q t24 = flipped<0, 0, 0, 1>(t5);
        const Q t25 = t22 + t24;
        const Q t26 = flipped<0, 0, 0, 1>(t13);
        const Q t27 = t25 + t26;
        const Q x1_6 = io.pairs(1, 6);
        // doubled bins
        const Q t28 = c[0] * x1_6;
        // real block of 7, multiplier 3
        const Q t29 = c[1] * t22;
        const Q t30 = t28 - t29;
        const Q t31 = Q(c[2], c[2], c[2], -c[2]) * t5;
        const Q t32 = t30 + t31;
        const Q t33 = c[3] * t16;
        const Q t34 = c[4] * t23;
        const Q t35 = t33 - t34;
        const Q t36 = c[5] * t8;
        const Q t37 = t35 - t36;
        const Q t38 = c[2] * t22;
        const Q t39 = Q(c[6], c[6], c[6], -c[6]) * t5;
        const Q t40 = t38 - t39;
        const Q t41 = Q(c[1], c[1], c[1], -c[1]) * t13;
        const Q t42 = t40 - t41;
        const Q t43 = c[5] * t23;
        const Q t44 = c[3] * t8;
        const Q t45 = t43 - t44;
        const Q t46 = c[4] * t16;
        const Q t47 = t45 - t46;
        const Q t48 = c[6] * t22;
        const Q t49 = t28 - t48;
        const Q t50 = Q(c[1], c[1], c[1], -c[1]) * t5;
        const Q t51 = t49 - t50;
        const Q t52 = c[3] * t23;
        const Q t53 = c[4] * t8;
        const Q t54 = t52 + t53;
        const Q t55 = c[5] * t16;
        const Q t56 = t54 + t55;
        const Q x15_9 = io.pairs(15, 9);
        // doubled bins
        const Q t57 = c[0] * x15_9;
        const P t58 = part<0>(t57);
        const P t59 = part<1>(t57);
        // real block of 7, multiplier 3
        const P t60 = t58 + t59;
        const P t61 = t58 - t59;
        const Q x17_13 = io.pairs(17, 13);
        // doubled bins
        const Q t62 = c[0] * x17_13;
        const P t63 = part<0>(t62);
        const P t64 = part<1>(t62);
        // real block of 7, multiplier 3
        const P t65 = t63 + t64;
        const P t66 = t63 - t64;
        const Q x18_14 = io.pairs(18, 14);
        // doubled bins
        const Q t67 = c[0] * x18_14;
        const P t68 = part<1>(t67);
        const P t69 = part<0>(t67);
        const P t70 = flipped<0, 1>(t69);
        // real block of 7, multiplier 3
        const P t71 = t68 + t70;
        const P t72 = flipped<1, 0>(t68);
        const P t73 = t69 + t72;
        const P t74 = t65 + t71;
        const P t75 = t74 + t60;
        const P x7 = io.pair(7);
        // doubled bins
        const P t76 = c[0] * x7;
        // real block of 7, multiplier 3
        const P t77 = P(-c[1], c[1]) * t65;
        const P t78 = t76 + t77;
        const P t79 = c[2] * t71;
        const P t80 = flipped<0, 1>(t78);
        const P t81 = t79 + t80;
        const P t82 = P(-c[4], c[4]) * t66;
        const P t83 = c[5] * t73;
        const P t84 = shuffled<0, 3>(t82, t83);
        const P t85 = c[3] * t61;
        const P t86 = t84 + t85;
        const P t87 = shuffled<0, 3>(t83, t82);
        const P t88 = t86 - t87;
        const P t89 = c[2] * t65;
        const P t90 = c[6] * t71;
        const P t91 = t89 - t90;
        const P t92 = c[1] * t60;
        const P t93 = t91 - t92;
        const P t94 = c[5] * t66;
        const P t95 = P(-c[3], c[3]) * t73;
        const P t96 = t94 + t95;
        const P t97 = c[4] * t61;
        const P t98 = t96 - t97;
        const P t99 = P(-c[6], c[6]) * t65;
        const P t100 = t76 + t99;
        const P t101 = P(-c[1], c[1]) * t71;
        const P t102 = t100 + t101;
        const P t103 = c[4] * t73;
        const P t104 = P(c[3], -c[3]) * t66;
        const P t105 = t103 + t104;
        const P t106 = P(c[5], -c[5]) * t61;
        const P t107 = t105 + t106;
        // real block of 7, multiplier 3
        const Q t108 = t27 + t28;
        const P t109 = flipped<0, 1>(t76);
        // real block of 7, multiplier 3
        const P t110 = t75 + t109;
        const P t111 = part<1>(t108);
        // real block of 3
        const P t112 = t111 + t110;
        const P t113 = t111 - t110;
        const P t114 = part<0>(t108);
        const P t115 = t112 + t114;
        const P t116 = c[7] * t112;
        const P t117 = t114 - t116;
        // real block of 7, multiplier 3
        const Q t118 = Q(c[6], c[6], c[6], -c[6]) * t13;
        const Q t119 = t32 - t118;
        // real block of 7, multiplier 3
        const P t120 = c[6] * t60;
        const P t121 = t81 - t120;
        const Q t122 = shuffled<0, 4, 2, 6>(t119, t37);
        const Q t123 = shuffled<1, 5, 3, 7>(t119, t37);
        const Q t124 = shuffled<2, 3, 6, 7>(t122, t123);
        const P t125 = shuffled<0, 2>(t121, t88);
        const P t126 = shuffled<1, 3>(t121, t88);
        const Q t127 = joined(t125, t126);
        // complex block of 3
        const Q t128 = t124 + t127;
        const Q t129 = t124 - t127;
        // real block of 7, multiplier 3
        const Q t130 = Q(c[2], c[2], c[2], -c[2]) * t13;
        const Q t131 = t51 + t130;
        // real block of 7, multiplier 3
        const P t132 = c[2] * t60;
        const P t133 = flipped<0, 1>(t102);
        const P t134 = t132 + t133;
        const P t135 = shuffled<0, 2>(t134, t107);
        const P t136 = shuffled<1, 3>(t134, t107);
        const Q t137 = joined(t135, t136);
        const Q t138 = shuffled<0, 4, 2, 6>(t131, t56);
        const Q t139 = shuffled<1, 5, 3, 7>(t131, t56);
        const Q t140 = shuffled<2, 3, 6, 7>(t138, t139);
        const Q t141 = flipped<0, 0, 0, 1>(t140);
        // complex block of 3
        const Q t142 = t137 + t141;
        const Q t143 = shuffled<0, 5, 2, 7>(t141, t137);
        const Q t144 = shuffled<0, 5, 2, 7>(t137, t141);
        const Q t145 = t143 - t144;
        const Q t146 = shuffled<0, 1, 4, 5>(t122, t123);
        // complex block of 3
        const Q t147 = t128 + t146;
        const Q t148 = shuffled<0, 1, 4, 5>(t138, t139);
        const Q t149 = flipped<0, 0, 0, 1>(t148);
        // complex block of 3
        const Q t150 = t142 + t149;
        // complex block of 3
        const Q t151 = c[7] * t128;
        const Q t152 = t146 - t151;
        const Q t153 = Q(-c[8], c[8], -c[8], c[8]) * t129;
        const Q t154 = shuffled<1, 0, 3, 2>(t153);
        const Q t155 = t152 + t154;
        const Q t156 = t152 - t154;
        const Q t157 = flipped<0, 1, 0, 1>(t149);
        // complex block of 3
        const Q t158 = Q(-c[7], c[7], -c[7], c[7]) * t142;
        const Q t159 = t157 + t158;
        const Q t160 = Q(-c[8], c[8], c[8], -c[8]) * t145;
        const Q t161 = shuffled<1, 0, 3, 2>(t160);
        const Q t162 = t159 + t161;
        const Q t163 = flipped<1, 1, 1, 0>(t161);
        const Q t164 = flipped<0, 0, 0, 1>(t159);
        const Q t165 = t163 + t164;
        // real block of 7, multiplier 3
        const Q t166 = t42 + t28;
        // real block of 7, multiplier 3
        const P t167 = t93 + t109;
        const Q t168 = shuffled<0, 4, 2, 6>(t166, t47);
        const Q t169 = shuffled<1, 5, 3, 7>(t166, t47);
        const Q t170 = shuffled<2, 3, 6, 7>(t168, t169);
        const P t171 = shuffled<0, 2>(t167, t98);
        const P t172 = shuffled<1, 3>(t167, t98);
        const Q t173 = joined(t171, t172);
        // complex block of 3
        const Q t174 = t170 + t173;
        const Q t175 = t170 - t173;
        const Q t176 = shuffled<0, 1, 4, 5>(t168, t169);
        const Q t177 = t174 + t176;
        const Q t178 = c[7] * t174;
        const Q t179 = t176 - t178;
        const Q t180 = Q(-c[8], c[8], -c[8], c[8]) * t175;
        const Q t181 = shuffled<1, 0, 3, 2>(t180);
        const Q t182 = t179 + t181;
        const Q t183 = t179 - t181;
        const V x0r = io.re(0);
        const V t184 = part<0>(t115);
        // spectrum block of 43
        const V t185 = c[45] * t184;
        const V t186 = x0r - t185;
        // real block of 3
        const P t187 = c[8] * t113;
        const P t188 = shuffled<0, 3>(t117, t187);
        // spectrum block of 43
        const P t189 = P(c[46], c[47]) * t188;
        const P t190 = shuffled<0, 3>(t187, t117);
        const P t191 = P(c[48], -c[49]) * t190;
        const P t192 = t189 + t191;
        const V t193 = part<1>(t115);
        const V t194 = -c[50] * t193;
        const P t195 = joined(t186, t194);
        // spectrum block of 3, multiplier 2
        const P t196 = t192 + t195;
        const P t197 = flipped<0, 1>(t195);
        const P t198 = P(-c[7], c[7]) * t192;
        const P t199 = t197 + t198;
        const P t200 = P(c[51], c[52]) * t188;
        const P t201 = P(-c[53], c[54]) * t190;
        const P t202 = t200 + t201;
        const P t203 = flipped<1, 0>(t202);
        const P t204 = t199 + t203;
        const V t205 = part<0>(t204);
        const V t206 = part<1>(t204);
        // spectrum block of 2
        const V t207 = t205 - t206;
        const V t208 = t205 + t206;
        const P t209 = flipped<0, 1>(t199);
        // spectrum block of 3, multiplier 2
        const P t210 = t202 + t209;
        const P t211 = shuffled<0, 2>(t196, t210);
        const P t212 = shuffled<1, 3>(t196, t210);
        // spectrum block of 2
        const P t213 = t211 + t212;
        const P t214 = t211 - t212;
        const Q t215 = shuffled<1, 0, 3, 2>(t150);
        const Q t216 = shuffled<2, 3, 4, 5>(t215, t147);
        // spectrum block of 43
        const Q t217 = Q(c[9], c[9], c[10], c[10]) * t216;
        const Q t218 = shuffled<1, 0, 3, 2>(t216);
        const Q t219 = Q(-c[11], c[11], c[12], -c[12]) * t218;
        const Q t220 = t217 + t219;
        const Q t221 = shuffled<2, 3, 4, 5>(t155, t162);
        const Q t222 = shuffled<1, 0, 3, 2>(t221);
        const Q t223 = Q(c[13], c[13], c[14], c[14]) * t222;
        const Q t224 = Q(c[15], -c[15], c[16], -c[16]) * t221;
        const Q t225 = t223 + t224;
        const Q t226 = shuffled<2, 3, 4, 5>(t156, t165);
        const Q t227 = Q(c[17], -c[17], c[18], c[18]) * t226;
        const Q t228 = shuffled<1, 0, 3, 2>(t226);
        const Q t229 = Q(c[19], c[19], -c[20], c[20]) * t228;
        const Q t230 = t227 + t229;
        const Q t231 = flipped<1, 1, 0, 0>(t230);
        const Q t232 = flipped<0, 0, 0, 1>(t225);
        // complex block of 3, multiplier 2
        const Q t233 = t231 + t232;
        const Q t234 = flipped<1, 1, 1, 0>(t231);
        const Q t235 = t225 + t234;
        const Q t236 = shuffled<2, 3, 0, 1>(t177);
        // spectrum block of 43
        const Q t237 = Q(c[21], c[21], c[22], c[22]) * t236;
        const Q t238 = shuffled<1, 0, 3, 2>(t236);
        const Q t239 = Q(-c[23], c[23], -c[24], c[24]) * t238;
        const Q t240 = t237 + t239;
        const Q t241 = shuffled<2, 3, 0, 1>(t182);
        const Q t242 = Q(c[25], c[25], c[26], c[26]) * t241;
        const Q t243 = shuffled<1, 0, 3, 2>(t241);
        const Q t244 = Q(c[27], -c[27], c[28], -c[28]) * t243;
        const Q t245 = t242 + t244;
        const Q t246 = shuffled<2, 3, 0, 1>(t183);
        const Q t247 = shuffled<1, 0, 3, 2>(t246);
        const Q t248 = Q(-c[29], c[29], c[30], c[30]) * t247;
        const Q t249 = Q(c[31], c[31], c[32], -c[32]) * t246;
        const Q t250 = t248 + t249;
        const Q t251 = flipped<0, 0, 1, 0>(t245);
        // complex block of 3, multiplier 2
        const Q t252 = t251 + t250;
        const Q t253 = flipped<0, 1, 0, 0>(t250);
        const Q t254 = flipped<1, 0, 1, 1>(t251);
        const Q t255 = t253 + t254;
        const Q t256 = shuffled<2, 3, 4, 5>(t165, t156);
        const Q t257 = shuffled<1, 0, 3, 2>(t256);
        // spectrum block of 43
        const Q t258 = Q(c[33], -c[33], c[34], c[34]) * t257;
        const Q t259 = Q(c[35], c[35], c[36], -c[36]) * t256;
        const Q t260 = t258 + t259;
        const Q t261 = shuffled<2, 3, 4, 5>(t162, t155);
        const Q t262 = Q(c[37], c[37], c[38], c[38]) * t261;
        const Q t263 = shuffled<1, 0, 3, 2>(t261);
        const Q t264 = Q(-c[39], c[39], c[40], -c[40]) * t263;
        const Q t265 = t262 + t264;
        const Q t266 = flipped<1, 0, 0, 1>(t260);
        // complex block of 3, multiplier 2
        const Q t267 = t265 + t266;
        const Q t268 = flipped<0, 1, 0, 0>(t265);
        const Q t269 = flipped<1, 0, 1, 1>(t266);
        const Q t270 = t268 + t269;
        const Q t271 = shuffled<2, 3, 4, 5>(t147, t150);
        // spectrum block of 43
        const Q t272 = Q(c[41], -c[41], c[42], c[42]) * t271;
        const Q t273 = shuffled<1, 0, 3, 2>(t271);
        const Q t274 = Q(c[43], c[43], -c[44], c[44]) * t273;
        const Q t275 = t272 + t274;
        // complex block of 3, multiplier 2
        const Q t276 = t267 + t220;
        const Q t277 = c[7] * t267;
        const Q t278 = t220 - t277;
        const Q t279 = Q(c[8], c[8], -c[8], c[8]) * t270;
        const Q t280 = shuffled<1, 0, 3, 2>(t279);
        const Q t281 = t278 - t280;
        const Q t282 = t278 + t280;
        const Q t283 = flipped<0, 0, 0, 1>(t252);
        // complex block of 3, multiplier 2
        const Q t284 = t240 + t283;
        const Q t285 = Q(-c[7], c[7], -c[7], c[7]) * t252;
        const Q t286 = flipped<0, 1, 0, 0>(t240);
        const Q t287 = t285 + t286;
        const Q t288 = Q(-c[8], c[8], c[8], c[8]) * t255;
        const Q t289 = shuffled<1, 0, 3, 2>(t288);
        const Q t290 = t287 - t289;
        const Q t291 = t287 + t289;
        const Q t292 = flipped<0, 0, 0, 1>(t275);
        // complex block of 3, multiplier 2
        const Q t293 = t233 + t292;
        const Q t294 = Q(c[7], c[7], c[7], -c[7]) * t233;
        const Q t295 = t275 - t294;
        const Q t296 = Q(-c[8], c[8], c[8], c[8]) * t235;
        const Q t297 = shuffled<1, 0, 3, 2>(t296);
        const Q t298 = flipped<0, 0, 0, 1>(t295);
        const Q t299 = t297 + t298;
        const Q t300 = flipped<1, 1, 1, 0>(t297);
        const Q t301 = t295 + t300;
        const Q t302 = shuffled<2, 3, 6, 7>(t276, t282);
        const Q t303 = shuffled<0, 1, 4, 5>(t293, t301);
        const Q t304 = flipped<0, 1, 0, 1>(t303);
        // complex block of 2
        const Q t305 = t302 + t304;
        const Q t306 = t302 - t304;
        const Q t307 = shuffled<2, 3, 6, 7>(t284, t291);
        const Q t308 = shuffled<0, 1, 4, 5>(t284, t291);
        const Q t309 = flipped<0, 0, 0, 1>(t308);
        // complex block of 2
        const Q t310 = t307 + t309;
        const Q t311 = t307 - t309;
        const Q t312 = shuffled<2, 3, 6, 7>(t281, t290);
        const Q t313 = shuffled<0, 1, 4, 5>(t299, t290);
        const Q t314 = flipped<0, 1, 0, 1>(t313);
        // complex block of 2
        const Q t315 = t312 + t314;
        const Q t316 = t312 - t314;
        const Q t317 = shuffled<2, 3, 6, 7>(t293, t301);
        const Q t318 = shuffled<0, 1, 4, 5>(t276, t282);
        const Q t319 = flipped<0, 1, 0, 0>(t318);
        // complex block of 2
        const Q t320 = t317 + t319;
        const Q t321 = flipped<1, 1, 1, 0>(t319);
        const Q t322 = flipped<0, 0, 0, 1>(t317);
        const Q t323 = t321 + t322;
        const P t324 = part<0>(t305);
        const P t325 = part<1>(t305);
        const P t326 = shuffled<0, 2>(t324, t325);
        const P t327 = part<0>(t306);
        const P t328 = part<1>(t306);
        const P t329 = shuffled<0, 2>(t327, t328);
        const Q t330 = joined(t326, t329);
        const P t331 = part<0>(t310);
        const P t332 = part<1>(t310);
        const P t333 = shuffled<0, 2>(t331, t332);
        const P t334 = part<0>(t311);
        const P t335 = part<1>(t311);
        const P t336 = shuffled<0, 2>(t334, t335);
        const Q t337 = joined(t333, t336);
        // spectrum block of 7, multiplier 6
        const Q t338 = t330 + t337;
        const Q t339 = c[2] * t330;
        const Q t340 = c[6] * t337;
        const Q t341 = t339 - t340;
        const P t342 = part<0>(t320);
        const P t343 = part<1>(t320);
        const P t344 = shuffled<0, 2>(t342, t343);
        const P t345 = part<0>(t323);
        const P t346 = part<1>(t323);
        const P t347 = shuffled<0, 2>(t345, t346);
        const Q t348 = joined(t344, t347);
        const Q t349 = t338 + t348;
        const Q t350 = c[1] * t348;
        const Q t351 = t341 - t350;
        const P t352 = shuffled<1, 3>(t324, t325);
        const P t353 = shuffled<1, 3>(t327, t328);
        const Q t354 = joined(t352, t353);
        const Q t355 = c[5] * t354;
        const P t356 = shuffled<1, 3>(t331, t332);
        const P t357 = shuffled<1, 3>(t334, t335);
        const Q t358 = joined(t356, t357);
        const Q t359 = c[3] * t358;
        const Q t360 = t355 + t359;
        const Q t361 = joined(t213, t214);
        const Q t362 = c[6] * t330;
        const Q t363 = t361 - t362;
        const Q t364 = c[1] * t337;
        const Q t365 = t363 - t364;
        const Q t366 = c[3] * t354;
        const Q t367 = c[4] * t358;
        const Q t368 = t366 - t367;
        const Q t369 = c[1] * t330;
        const Q t370 = t361 - t369;
        const Q t371 = c[2] * t337;
        const Q t372 = t370 + t371;
        const Q t373 = c[4] * t354;
        const Q t374 = c[5] * t358;
        const Q t375 = t373 - t374;
        const Q t376 = t349 + t361;
        io.out(1, 6, 42, 37, t376);
        const Q t377 = t351 + t361;
        const P t378 = shuffled<1, 3>(t342, t343);
        const P t379 = shuffled<1, 3>(t345, t346);
        const Q t380 = joined(t378, t379);
        const Q t381 = Q(c[4], -c[4], c[4], c[4]) * t380;
        const Q t382 = t360 + t381;
        const Q t383 = t377 - t382;
        io.out(41, 31, 2, 12, t383);
        const Q t384 = t377 + t382;
        io.out(21, 40, 22, 3, t384);
        const Q t385 = c[2] * t348;
        const Q t386 = t365 + t385;
        const Q t387 = Q(c[5], -c[5], c[5], c[5]) * t380;
        const Q t388 = t368 - t387;
        const Q t389 = t386 - t388;
        io.out(4, 24, 39, 19, t389);
        const Q t390 = t386 + t388;
        io.out(11, 23, 32, 20, t390);
        const Q t391 = c[6] * t348;
        const Q t392 = t372 - t391;
        const Q t393 = Q(c[3], -c[3], c[3], c[3]) * t380;
        const Q t394 = t375 + t393;
        const Q t395 = t392 - t394;
        io.out(35, 38, 8, 5, t395);
        const Q t396 = t392 + t394;
        io.out(16, 10, 27, 33, t396);
        const P t397 = part<1>(t299);
        const P t398 = part<0>(t281);
        const P t399 = flipped<0, 1>(t398);
        // complex block of 2
        const P t400 = t397 + t399;
        const P t401 = t397 - t399;
        const P t402 = part<0>(t315);
        const P t403 = part<0>(t316);
        const P t404 = shuffled<0, 2>(t402, t403);
        const P t405 = part<1>(t315);
        const P t406 = part<1>(t316);
        const P t407 = shuffled<0, 2>(t405, t406);
        // spectrum block of 7, multiplier 6
        const P t408 = t404 + t407;
        const P t409 = c[2] * t404;
        const P t410 = c[6] * t407;
        const P t411 = t409 - t410;
        const P t412 = shuffled<0, 2>(t400, t401);
        const P t413 = t408 + t412;
        const P t414 = c[1] * t412;
        const P t415 = t411 - t414;
        const P t416 = shuffled<1, 3>(t402, t403);
        const P t417 = c[5] * t416;
        const P t418 = shuffled<1, 3>(t405, t406);
        const P t419 = c[3] * t418;
        const P t420 = t417 + t419;
        const P t421 = joined(t207, t208);
        const P t422 = c[6] * t404;
        const P t423 = t421 - t422;
        const P t424 = c[1] * t407;
        const P t425 = t423 - t424;
        const P t426 = c[3] * t416;
        const P t427 = c[4] * t418;
        const P t428 = t426 - t427;
        const P t429 = c[1] * t404;
        const P t430 = t421 - t429;
        const P t431 = c[2] * t407;
        const P t432 = t430 + t431;
        const P t433 = c[4] * t416;
        const P t434 = c[5] * t418;
        const P t435 = t433 - t434;
        const P t436 = t413 + t421;
        io.out(36, 7, t436);
        const P t437 = t415 + t421;
        const P t438 = shuffled<1, 3>(t400, t401);
        const P t439 = c[4] * t438;
        const P t440 = t420 + t439;
        const P t441 = t437 - t440;
        io.out(14, 29, t441);
        const P t442 = t437 + t440;
        io.out(25, 18, t442);
        const P t443 = c[2] * t412;
        const P t444 = t425 + t443;
        const P t445 = c[5] * t438;
        const P t446 = t428 - t445;
        const P t447 = t444 - t446;
        io.out(15, 28, t447);
        const P t448 = t444 + t446;
        io.out(9, 34, t448);
        const P t449 = c[6] * t412;
        const P t450 = t432 - t449;
        const P t451 = c[3] * t438;
        const P t452 = t435 + t451;
        const P t453 = t450 - t452;
        io.out(13, 30, t453);
        const P t454 = t450 + t452;
        io.out(17, 26, t454);
        // spectrum block of 43
        const V t455 = x0r + t184;
        io.out(0, t455);
    }
};

}  // namespace zulg
