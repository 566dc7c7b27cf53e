// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 43.
// Complex DFT of 43 points, Rader block; two lines of a stage to a register.
// 157 sums, 137 differences, 178 products of registers, which do the 1942 steps of the graph, those with
// `scale` included; 99 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<43> {
    static constexpr int steps = 1942;  // with `scale`
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
        0.23875651933592446,  // c[8]: Q[3] of 43
        0.08222826754004824,  // c[9]: -Q[1] of 43
        0.20124858610393936,  // c[10]: -P[3] of 43
        0.3012377482182514,  // c[11]: -P[1] of 43
        0.18645814945888683,  // c[12]: P[18] of 43
        0.008407870561774193,  // c[13]: P[20] of 43
        0.25047759866823976,  // c[14]: -Q[18] of 43
        0.31214576185951465,  // c[15]: -Q[20] of 43
        0.24532144471548137,  // c[16]: P[6] of 43
        0.04915127741599876,  // c[17]: P[8] of 43
        0.19319176405051375,  // c[18]: -Q[6] of 43
        0.3083663744032671,  // c[19]: Q[8] of 43
        0.26976291906470395,  // c[20]: -Q[15] of 43
        0.30825588409410104,  // c[21]: Q[13] of 43
        0.15726931179327497,  // c[22]: -P[15] of 43
        0.049839531053216354,  // c[23]: -P[13] of 43
        0.02153059463206762,  // c[24]: P[2] of 43
        0.23076057628931884,  // c[25]: P[4] of 43
        0.3115158140914036,  // c[26]: Q[2] of 43
        0.2103692595529628,  // c[27]: Q[4] of 43
        0.29230673527015266,  // c[28]: -P[19] of 43
        0.3044528520057486,  // c[29]: Q[17] of 43
        0.10982914663214519,  // c[30]: -Q[19] of 43
        0.06938393070305333,  // c[31]: P[17] of 43
        0.026892691663313772,  // c[32]: Q[7] of 43
        0.16498076041582113,  // c[33]: -Q[5] of 43
        0.31109878185126716,  // c[34]: P[7] of 43
        0.26511698856704335,  // c[35]: P[5] of 43
        0.2301120958697675,  // c[36]: P[14] of 43
        0.3042741226030731,  // c[37]: -P[16] of 43
        0.21107840313178253,  // c[38]: Q[14] of 43
        0.07016357494006686,  // c[39]: -Q[16] of 43
        0.2698146808366376,  // c[40]: P[11] of 43
        0.10490468278634746,  // c[41]: -Q[9] of 43
        0.15718049159887415,  // c[42]: -Q[11] of 43
        0.29410997341765915,  // c[43]: P[9] of 43
        0.03700283253527918,  // c[44]: P[10] of 43
        0.30868217300913287,  // c[45]: P[12] of 43
        0.3100587997761174,  // c[46]: Q[10] of 43
        0.04712732753509521,  // c[47]: Q[12] of 43
        0.023809523809523808,  // c[48]: 1/42
        0.15612948867385715,  // c[49]: beta of 43
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x14_2 = io.pairs(14, 2);
        const Q x25_22 = io.pairs(25, 22);
        // real block of 7, multiplier 6
        const Q t0 = x14_2 + x25_22;
        const Q t1 = x14_2 - x25_22;
        const Q x9_32 = io.pairs(9, 32);
        const Q x15_39 = io.pairs(15, 39);
        const Q t2 = x9_32 + x15_39;
        const Q t3 = x9_32 - x15_39;
        const Q t4 = t0 + t2;
        const Q x41_12 = io.pairs(41, 12);
        const Q x21_3 = io.pairs(21, 3);
        // real block of 7, multiplier 6
        const Q t5 = x41_12 + x21_3;
        const Q t6 = x41_12 - x21_3;
        const Q x11_20 = io.pairs(11, 20);
        const Q x4_19 = io.pairs(4, 19);
        const Q t7 = x11_20 + x4_19;
        const Q t8 = x11_20 - x4_19;
        const Q t9 = t5 + t7;
        const Q x16_33 = io.pairs(16, 33);
        const Q x35_5 = io.pairs(35, 5);
        const Q t10 = x16_33 + x35_5;
        const Q t11 = x16_33 - x35_5;
        const Q x17_27 = io.pairs(17, 27);
        const Q x13_8 = io.pairs(13, 8);
        // real block of 7, multiplier 6
        const Q t12 = x17_27 + x13_8;
        const Q t13 = x17_27 - x13_8;
        const Q x10_26 = io.pairs(10, 26);
        const Q x38_30 = io.pairs(38, 30);
        // real block of 7, multiplier 6
        const Q t14 = x10_26 + x38_30;
        const Q t15 = x10_26 - x38_30;
        const Q x31_29 = io.pairs(31, 29);
        const Q x40_18 = io.pairs(40, 18);
        const Q t16 = x31_29 + x40_18;
        const Q t17 = x31_29 - x40_18;
        const Q x23_34 = io.pairs(23, 34);
        const Q x24_28 = io.pairs(24, 28);
        const Q t18 = x23_34 + x24_28;
        const Q t19 = x23_34 - x24_28;
        const Q t20 = t16 + t18;
        // real block of 7, multiplier 6
        const Q t21 = t9 + t10;
        const Q x1_37 = io.pairs(1, 37);
        const Q t22 = t21 + x1_37;
        const Q t23 = c[0] * t5;
        const Q t24 = c[1] * t7;
        const Q t25 = t23 - t24;
        const Q t26 = c[2] * t10;
        const Q t27 = t25 - t26;
        const Q t28 = t27 + x1_37;
        const Q t29 = c[3] * t6;
        const Q t30 = c[4] * t8;
        const Q t31 = t29 - t30;
        const Q t32 = c[5] * t11;
        const Q t33 = t31 - t32;
        const Q t34 = c[4] * t6;
        const Q t35 = c[5] * t8;
        const Q t36 = t34 + t35;
        const Q t37 = c[3] * t11;
        const Q t38 = t36 + t37;
        // real block of 7, multiplier 6
        const Q t39 = c[3] * t1;
        const Q t40 = c[4] * t3;
        const Q t41 = t39 - t40;
        const Q t42 = c[5] * t13;
        const Q t43 = t41 - t42;
        const Q t44 = c[4] * t1;
        const Q t45 = c[5] * t3;
        const Q t46 = t44 + t45;
        const Q t47 = c[3] * t13;
        const Q t48 = t46 + t47;
        // real block of 7, multiplier 6
        const Q t49 = c[3] * t17;
        const Q t50 = c[4] * t19;
        const Q t51 = t49 - t50;
        const Q t52 = c[5] * t15;
        const Q t53 = t51 - t52;
        const Q t54 = c[4] * t17;
        const Q t55 = c[5] * t19;
        const Q t56 = t54 + t55;
        const Q t57 = c[3] * t15;
        const Q t58 = t56 + t57;
        const Q t59 = shuffled<0, 1, 4, 5>(t43, t48);
        const Q t60 = shuffled<0, 1, 4, 5>(t53, t58);
        // complex block of 3, multiplier 2
        const Q t61 = t59 + t60;
        const Q t62 = shuffled<2, 3, 6, 7>(t53, t58);
        const Q t63 = shuffled<2, 3, 6, 7>(t33, t38);
        // complex block of 3, multiplier 2
        const Q t64 = t62 + t63;
        // real block of 7, multiplier 6
        const Q t65 = c[1] * t5;
        const Q t66 = x1_37 - t65;
        const Q t67 = c[2] * t7;
        const Q t68 = t66 - t67;
        const Q t69 = c[0] * t10;
        const Q t70 = t68 + t69;
        const Q t71 = c[2] * t5;
        const Q t72 = x1_37 - t71;
        const Q t73 = c[0] * t7;
        const Q t74 = t72 + t73;
        const Q t75 = c[1] * t10;
        const Q t76 = t74 - t75;
        const Q t77 = c[5] * t6;
        const Q t78 = c[3] * t8;
        const Q t79 = t77 + t78;
        const Q t80 = c[4] * t11;
        const Q t81 = t79 - t80;
        // real block of 7, multiplier 6
        const Q t82 = c[5] * t1;
        const Q t83 = c[3] * t3;
        const Q t84 = t82 + t83;
        const Q t85 = c[4] * t13;
        const Q t86 = t84 - t85;
        // real block of 7, multiplier 6
        const Q t87 = c[5] * t17;
        const Q t88 = c[3] * t19;
        const Q t89 = t87 + t88;
        const Q t90 = c[4] * t15;
        const Q t91 = t89 - t90;
        const Q t92 = shuffled<0, 1, 6, 7>(t86, t81);
        // complex block of 3, multiplier 2
        const Q t93 = t91 + t92;
        // real block of 7, multiplier 6
        const Q t94 = t4 + t12;
        const Q x36_42 = io.pairs(36, 42);
        const Q t95 = t94 + x36_42;
        const Q t96 = c[0] * t0;
        const Q t97 = c[1] * t2;
        const Q t98 = t96 - t97;
        const Q t99 = c[2] * t12;
        const Q t100 = t98 - t99;
        const Q t101 = t100 + x36_42;
        const Q t102 = c[1] * t0;
        const Q t103 = x36_42 - t102;
        const Q t104 = c[2] * t2;
        const Q t105 = t103 - t104;
        const Q t106 = c[0] * t12;
        const Q t107 = t105 + t106;
        const Q t108 = c[2] * t0;
        const Q t109 = x36_42 - t108;
        const Q t110 = c[0] * t2;
        const Q t111 = t109 + t110;
        const Q t112 = c[1] * t12;
        const Q t113 = t111 - t112;
        // real block of 7, multiplier 6
        const Q t114 = t20 + t14;
        const Q x6_7 = io.pairs(6, 7);
        const Q t115 = t114 + x6_7;
        const Q t116 = c[0] * t16;
        const Q t117 = c[1] * t18;
        const Q t118 = t116 - t117;
        const Q t119 = c[2] * t14;
        const Q t120 = t118 - t119;
        const Q t121 = t120 + x6_7;
        const Q t122 = c[1] * t16;
        const Q t123 = x6_7 - t122;
        const Q t124 = c[2] * t18;
        const Q t125 = t123 - t124;
        const Q t126 = c[0] * t14;
        const Q t127 = t125 + t126;
        const Q t128 = c[2] * t16;
        const Q t129 = x6_7 - t128;
        const Q t130 = c[0] * t18;
        const Q t131 = t129 + t130;
        const Q t132 = c[1] * t14;
        const Q t133 = t131 - t132;
        const Q t134 = shuffled<0, 1, 6, 7>(t95, t22);
        // real block of 3, multiplier 2
        const Q t135 = t115 + t134;
        const Q t136 = shuffled<0, 1, 6, 7>(t22, t95);
        const Q t137 = t135 + t136;
        const Q t138 = c[6] * t135;
        const Q t139 = t136 - t138;
        const Q t140 = shuffled<0, 1, 6, 7>(t134, t115);
        const Q t141 = shuffled<0, 1, 6, 7>(t115, t134);
        const Q t142 = t140 - t141;
        const Q t143 = shuffled<0, 1, 4, 5>(t101, t107);
        const Q t144 = shuffled<0, 1, 4, 5>(t121, t127);
        // complex block of 3, multiplier 2
        const Q t145 = t143 + t144;
        const Q t146 = shuffled<0, 1, 4, 5>(t28, t70);
        const Q t147 = t145 + t146;
        const Q t148 = c[6] * t145;
        const Q t149 = t146 - t148;
        const Q t150 = t143 - t144;
        const Q t151 = shuffled<0, 1, 4, 5>(t33, t38);
        const Q t152 = c[6] * t61;
        const Q t153 = t151 - t152;
        const Q t154 = c[7] * t150;
        const Q t155 = t153 - t154;
        const Q t156 = t153 + t154;
        const Q t157 = t59 - t60;
        const Q t158 = t61 + t151;
        const Q t159 = shuffled<2, 3, 6, 7>(t43, t48);
        // complex block of 3, multiplier 2
        const Q t160 = t64 + t159;
        // complex block of 2
        const Q t161 = t158 + t160;
        const Q t162 = t158 - t160;
        const Q t163 = shuffled<2, 3, 6, 7>(t121, t127);
        const Q t164 = shuffled<2, 3, 6, 7>(t28, t70);
        // complex block of 3, multiplier 2
        const Q t165 = t163 + t164;
        const Q t166 = shuffled<2, 3, 6, 7>(t101, t107);
        const Q t167 = t165 + t166;
        const Q t168 = c[6] * t165;
        const Q t169 = t166 - t168;
        const Q t170 = t163 - t164;
        const Q t171 = c[6] * t64;
        const Q t172 = t159 - t171;
        const Q t173 = c[7] * t170;
        const Q t174 = t172 - t173;
        const Q t175 = t172 + t173;
        const Q t176 = t62 - t63;
        const Q t177 = shuffled<0, 1, 6, 7>(t113, t76);
        // complex block of 3, multiplier 2
        const Q t178 = t133 + t177;
        const Q t179 = shuffled<0, 1, 6, 7>(t76, t113);
        const Q t180 = t178 + t179;
        const Q t181 = c[6] * t178;
        const Q t182 = t179 - t181;
        const Q t183 = shuffled<0, 1, 6, 7>(t177, t133);
        const Q t184 = shuffled<0, 1, 6, 7>(t133, t177);
        const Q t185 = t183 - t184;
        const Q t186 = shuffled<0, 1, 6, 7>(t81, t86);
        const Q t187 = c[6] * t93;
        const Q t188 = t186 - t187;
        const Q t189 = c[7] * t185;
        const Q t190 = t188 - t189;
        const Q t191 = t188 + t189;
        const Q t192 = shuffled<0, 1, 6, 7>(t92, t91);
        const Q t193 = shuffled<0, 1, 6, 7>(t91, t92);
        const Q t194 = t192 - t193;
        const Q t195 = t93 + t186;
        const P t196 = part<0>(t137);
        const P t197 = part<1>(t137);
        // real block of 2
        const P t198 = t196 + t197;
        const P t199 = t196 - t197;
        const P t200 = part<0>(t139);
        const P t201 = part<1>(t139);
        // complex block of 2
        const P t202 = t200 + t201;
        const P t203 = t200 - t201;
        // complex block of 3, multiplier 2
        const Q t204 = c[7] * t157;
        const Q t205 = t149 - t204;
        // complex block of 3, multiplier 2
        const Q t206 = c[7] * t176;
        const Q t207 = t169 - t206;
        // complex block of 2
        const Q t208 = t205 + t207;
        const Q t209 = t205 - t207;
        // complex block of 3, multiplier 2
        const Q t210 = c[7] * t194;
        const Q t211 = t182 - t210;
        const Q t212 = shuffled<0, 1, 4, 5>(t180, t211);
        const Q t213 = shuffled<2, 3, 6, 7>(t180, t211);
        // complex block of 2
        const Q t214 = t212 + t213;
        const Q t215 = t212 - t213;
        // real block of 3, multiplier 2
        const Q t216 = c[7] * t142;
        const P t217 = part<0>(t216);
        const P t218 = part<1>(t216);
        // complex block of 2
        const P t219 = t217 + t218;
        // complex block of 2
        const Q t220 = t156 + t175;
        const Q t221 = shuffled<0, 1, 4, 5>(t195, t191);
        const Q t222 = shuffled<2, 3, 6, 7>(t195, t191);
        // complex block of 2
        const Q t223 = t221 + t222;
        // complex block of 2
        const P t224 = t217 - t218;
        // complex block of 3, multiplier 2
        const Q t225 = t149 + t204;
        // complex block of 3, multiplier 2
        const Q t226 = t169 + t206;
        // complex block of 2
        const Q t227 = t225 + t226;
        const Q t228 = t225 - t226;
        // complex block of 2
        const Q t229 = t147 + t167;
        const Q t230 = t147 - t167;
        // complex block of 2
        const Q t231 = t156 - t175;
        // complex block of 2
        const Q t232 = t155 + t174;
        const Q t233 = t155 - t174;
        // complex block of 3, multiplier 2
        const Q t234 = t182 + t210;
        const P t235 = part<0>(t234);
        const P t236 = part<1>(t234);
        // complex block of 2
        const P t237 = t235 + t236;
        const P t238 = t235 - t236;
        // complex block of 2
        const Q t239 = t221 - t222;
        const P t240 = part<0>(t190);
        const P t241 = part<1>(t190);
        // complex block of 2
        const P t242 = t240 + t241;
        const P t243 = t240 - t241;
        const P x0 = io.pair(0);
        // complex block of 43
        const P t244 = x0 + t198;
        io.pair(0, t244);
        const P t245 = c[48] * t198;
        const P t246 = x0 - t245;
        const P t247 = shuffled<1, 0>(t199);
        const P t248 = P(c[49], -c[49]) * t247;
        // spectrum block of 2
        const P t249 = t246 + t248;
        const P t250 = t246 - t248;
        const Q t251 = shuffled<0, 1, 4, 5>(t215, t209);
        const Q t252 = shuffled<1, 0, 3, 2>(t251);
        // complex block of 43
        const Q t253 = Q(c[8], -c[8], c[9], c[9]) * t252;
        const Q t254 = shuffled<0, 1, 4, 5>(t239, t231);
        const Q t255 = shuffled<1, 0, 3, 2>(t254);
        const Q t256 = Q(-c[10], c[10], c[11], c[11]) * t255;
        const Q t257 = t253 + t256;
        const Q t258 = shuffled<0, 1, 4, 5>(t214, t208);
        const Q t259 = Q(c[12], c[12], c[13], c[13]) * t258;
        const Q t260 = shuffled<0, 1, 4, 5>(t223, t220);
        const Q t261 = Q(c[14], c[14], c[15], c[15]) * t260;
        const Q t262 = t259 + t261;
        const Q t263 = flipped<0, 0, 1, 0>(t257);
        // complex block of 2
        const Q t264 = t262 + t263;
        const Q t265 = t262 - t263;
        const Q t266 = shuffled<0, 1, 4, 5>(t229, t227);
        // complex block of 43
        const Q t267 = Q(c[16], c[16], c[17], c[17]) * t266;
        const Q t268 = shuffled<0, 1, 4, 5>(t161, t232);
        const Q t269 = Q(c[18], c[18], c[19], c[19]) * t268;
        const Q t270 = t267 + t269;
        const Q t271 = shuffled<0, 1, 4, 5>(t230, t228);
        const Q t272 = shuffled<1, 0, 3, 2>(t271);
        const Q t273 = Q(c[20], c[20], c[21], c[21]) * t272;
        const Q t274 = shuffled<0, 1, 4, 5>(t162, t233);
        const Q t275 = shuffled<1, 0, 3, 2>(t274);
        const Q t276 = Q(c[22], c[22], c[23], c[23]) * t275;
        const Q t277 = t273 + t276;
        const Q t278 = flipped<1, 0, 0, 1>(t277);
        // complex block of 2
        const Q t279 = t270 + t278;
        const Q t280 = t270 - t278;
        const Q t281 = shuffled<2, 3, 6, 7>(t264, t265);
        const Q t282 = shuffled<2, 3, 6, 7>(t279, t280);
        // complex block of 3, multiplier 2
        const Q t283 = t281 + t282;
        // complex block of 43
        const Q t284 = Q(c[10], c[10], -c[11], c[11]) * t252;
        const Q t285 = Q(c[8], c[8], c[9], -c[9]) * t255;
        const Q t286 = t284 + t285;
        const Q t287 = Q(c[12], c[12], c[13], c[13]) * t260;
        const Q t288 = Q(c[14], c[14], c[15], c[15]) * t258;
        const Q t289 = t287 - t288;
        const Q t290 = flipped<1, 0, 0, 0>(t286);
        // complex block of 2
        const Q t291 = t289 - t290;
        const Q t292 = t289 + t290;
        const P t293 = part<1>(t227);
        const Q t294 = joined(t293, t237);
        // complex block of 43
        const Q t295 = Q(c[24], c[24], c[25], c[25]) * t294;
        const P t296 = part<1>(t232);
        const Q t297 = joined(t296, t242);
        const Q t298 = Q(c[26], c[26], -c[27], -c[27]) * t297;
        const Q t299 = t295 + t298;
        const P t300 = part<1>(t233);
        const Q t301 = joined(t300, t238);
        const Q t302 = shuffled<1, 0, 3, 2>(t301);
        const Q t303 = Q(c[28], -c[28], c[29], c[29]) * t302;
        const P t304 = part<1>(t228);
        const Q t305 = joined(t304, t243);
        const Q t306 = shuffled<1, 0, 3, 2>(t305);
        const Q t307 = Q(-c[30], c[30], c[31], c[31]) * t306;
        const Q t308 = t303 + t307;
        const Q t309 = flipped<0, 0, 0, 1>(t308);
        // complex block of 2
        const Q t310 = t299 + t309;
        const Q t311 = t299 - t309;
        const P t312 = part<1>(t209);
        const Q t313 = joined(t203, t312);
        const Q t314 = shuffled<1, 0, 3, 2>(t313);
        // complex block of 43
        const Q t315 = Q(c[32], c[32], c[33], c[33]) * t314;
        const P t316 = part<1>(t231);
        const Q t317 = joined(t224, t316);
        const Q t318 = shuffled<1, 0, 3, 2>(t317);
        const Q t319 = Q(c[34], c[34], c[35], c[35]) * t318;
        const Q t320 = t315 + t319;
        const P t321 = part<1>(t208);
        const Q t322 = joined(t202, t321);
        const Q t323 = Q(c[36], c[36], c[37], c[37]) * t322;
        const P t324 = part<1>(t220);
        const Q t325 = joined(t219, t324);
        const Q t326 = Q(-c[38], -c[38], c[39], c[39]) * t325;
        const Q t327 = t323 + t326;
        const Q t328 = flipped<0, 1, 0, 0>(t320);
        const Q t329 = flipped<0, 0, 0, 1>(t327);
        // complex block of 2
        const Q t330 = t328 + t329;
        const Q t331 = flipped<0, 0, 1, 1>(t329);
        const Q t332 = flipped<1, 1, 0, 0>(t328);
        const Q t333 = t331 + t332;
        const Q t334 = shuffled<0, 1, 4, 5>(t310, t311);
        const Q t335 = shuffled<2, 3, 6, 7>(t330, t333);
        const Q t336 = flipped<1, 0, 0, 1>(t335);
        // complex block of 3, multiplier 2
        const Q t337 = t334 + t336;
        const Q t338 = shuffled<0, 1, 6, 7>(t294, t297);
        // complex block of 43
        const Q t339 = Q(c[26], c[26], c[25], c[25]) * t338;
        const Q t340 = shuffled<0, 1, 6, 7>(t297, t294);
        const Q t341 = Q(-c[24], -c[24], c[27], c[27]) * t340;
        const Q t342 = t339 + t341;
        const Q t343 = Q(c[28], c[28], -c[29], c[29]) * t306;
        const Q t344 = Q(c[30], c[30], c[31], -c[31]) * t302;
        const Q t345 = t343 + t344;
        const Q t346 = flipped<1, 0, 0, 0>(t345);
        // complex block of 2
        const Q t347 = t342 - t346;
        const Q t348 = t342 + t346;
        // complex block of 43
        const Q t349 = Q(-c[32], c[32], -c[33], c[33]) * t318;
        const Q t350 = Q(c[34], -c[34], c[35], -c[35]) * t314;
        const Q t351 = t349 + t350;
        const Q t352 = Q(c[36], c[36], c[37], c[37]) * t325;
        const Q t353 = Q(c[38], c[38], -c[39], -c[39]) * t322;
        const Q t354 = t352 + t353;
        // complex block of 2
        const Q t355 = t354 - t351;
        const Q t356 = t354 + t351;
        const Q t357 = shuffled<0, 1, 6, 7>(t268, t266);
        // complex block of 43
        const Q t358 = Q(c[16], c[16], c[19], c[19]) * t357;
        const Q t359 = shuffled<0, 1, 6, 7>(t266, t268);
        const Q t360 = Q(c[18], c[18], c[17], c[17]) * t359;
        const Q t361 = t358 - t360;
        const Q t362 = Q(-c[22], c[22], -c[23], c[23]) * t272;
        const Q t363 = Q(c[20], -c[20], c[21], -c[21]) * t275;
        const Q t364 = t362 + t363;
        // complex block of 2
        const Q t365 = t361 - t364;
        const Q t366 = t361 + t364;
        const Q t367 = shuffled<2, 3, 6, 7>(t239, t230);
        const Q t368 = shuffled<1, 0, 3, 2>(t367);
        // complex block of 43
        const Q t369 = Q(c[40], c[40], -c[41], c[41]) * t368;
        const Q t370 = shuffled<2, 3, 6, 7>(t215, t162);
        const Q t371 = shuffled<1, 0, 3, 2>(t370);
        const Q t372 = Q(c[42], c[42], c[43], -c[43]) * t371;
        const Q t373 = t369 + t372;
        const Q t374 = shuffled<2, 3, 6, 7>(t214, t229);
        const Q t375 = Q(c[44], c[44], c[45], c[45]) * t374;
        const Q t376 = shuffled<2, 3, 6, 7>(t223, t161);
        const Q t377 = Q(c[46], c[46], -c[47], -c[47]) * t376;
        const Q t378 = t375 + t377;
        const Q t379 = flipped<1, 0, 0, 0>(t373);
        // complex block of 2
        const Q t380 = t378 + t379;
        const Q t381 = t378 - t379;
        // complex block of 43
        const Q t382 = Q(c[40], -c[40], c[41], c[41]) * t371;
        const Q t383 = Q(-c[42], c[42], c[43], c[43]) * t368;
        const Q t384 = t382 + t383;
        const Q t385 = shuffled<0, 1, 6, 7>(t374, t376);
        const Q t386 = Q(c[46], c[46], c[45], c[45]) * t385;
        const Q t387 = shuffled<0, 1, 6, 7>(t376, t374);
        const Q t388 = Q(-c[44], -c[44], c[47], c[47]) * t387;
        const Q t389 = t386 + t388;
        const Q t390 = flipped<0, 0, 0, 1>(t384);
        // complex block of 2
        const Q t391 = t389 - t390;
        const Q t392 = t389 + t390;
        const Q t393 = shuffled<0, 1, 4, 5>(t330, t333);
        const Q t394 = joined(t249, t250);
        // spectrum block of 3, multiplier 2
        const Q t395 = t393 + t394;
        const Q t396 = c[6] * t393;
        const Q t397 = t394 - t396;
        const Q t398 = shuffled<0, 1, 4, 5>(t355, t356);
        const Q t399 = c[7] * t398;
        const Q t400 = t397 - t399;
        const Q t401 = t397 + t399;
        const Q t402 = shuffled<2, 3, 6, 7>(t291, t292);
        const Q t403 = shuffled<2, 3, 6, 7>(t365, t366);
        // complex block of 3, multiplier 2
        const Q t404 = t402 - t403;
        const Q t405 = shuffled<0, 1, 4, 5>(t365, t366);
        const Q t406 = t404 + t405;
        const Q t407 = c[6] * t404;
        const Q t408 = t405 - t407;
        const Q t409 = t402 + t403;
        const Q t410 = shuffled<0, 1, 4, 5>(t279, t280);
        const Q t411 = c[6] * t283;
        const Q t412 = t410 - t411;
        const Q t413 = c[7] * t409;
        const Q t414 = t412 - t413;
        const Q t415 = t412 + t413;
        const Q t416 = t281 - t282;
        const Q t417 = t283 + t410;
        const Q t418 = shuffled<2, 3, 6, 7>(t355, t356);
        const Q t419 = shuffled<0, 1, 4, 5>(t347, t348);
        // complex block of 3, multiplier 2
        const Q t420 = t418 + t419;
        const Q t421 = shuffled<2, 3, 6, 7>(t391, t392);
        const Q t422 = t421 - t420;
        const Q t423 = c[6] * t420;
        const Q t424 = t423 + t421;
        const Q t425 = t419 - t418;
        const Q t426 = shuffled<2, 3, 6, 7>(t380, t381);
        const Q t427 = c[6] * t337;
        const Q t428 = t426 - t427;
        const Q t429 = c[7] * t425;
        const Q t430 = t428 - t429;
        const Q t431 = t428 + t429;
        const Q t432 = flipped<0, 1, 1, 0>(t334);
        const Q t433 = t335 + t432;
        const Q t434 = t337 + t426;
        const Q t435 = shuffled<2, 3, 6, 7>(t347, t348);
        const Q t436 = shuffled<0, 1, 4, 5>(t391, t392);
        // complex block of 3, multiplier 2
        const Q t437 = t435 - t436;
        const Q t438 = shuffled<0, 1, 4, 5>(t380, t381);
        const Q t439 = shuffled<2, 3, 6, 7>(t310, t311);
        const Q t440 = t438 + t439;
        const Q t441 = shuffled<0, 1, 4, 5>(t264, t265);
        const Q t442 = t440 + t441;
        const Q t443 = c[6] * t440;
        const Q t444 = t441 - t443;
        const Q t445 = t436 + t435;
        const Q t446 = t438 - t439;
        // complex block of 3, multiplier 2
        const Q t447 = c[7] * t416;
        const Q t448 = t408 + t447;
        // complex block of 3, multiplier 2
        const Q t449 = Q(-c[7], c[7], c[7], -c[7]) * t433;
        const Q t450 = t424 + t449;
        // spectrum block of 7, multiplier 6
        const Q t451 = c[3] * t448;
        const Q t452 = c[4] * t450;
        const Q t453 = t451 + t452;
        const Q t454 = c[4] * t448;
        const Q t455 = c[5] * t450;
        const Q t456 = t454 - t455;
        const Q t457 = c[5] * t448;
        const Q t458 = c[3] * t450;
        const Q t459 = t457 - t458;
        // complex block of 3, multiplier 2
        const Q t460 = t408 - t447;
        // complex block of 3, multiplier 2
        const Q t461 = t424 - t449;
        // spectrum block of 7, multiplier 6
        const Q t462 = c[3] * t460;
        const Q t463 = c[4] * t461;
        const Q t464 = t462 + t463;
        const Q t465 = c[4] * t460;
        const Q t466 = c[5] * t461;
        const Q t467 = t465 - t466;
        const Q t468 = c[5] * t460;
        const Q t469 = c[3] * t461;
        const Q t470 = t468 - t469;
        const Q t471 = shuffled<0, 1, 4, 5>(t291, t292);
        // complex block of 3, multiplier 2
        const Q t472 = c[6] * t437;
        const Q t473 = t471 - t472;
        const Q t474 = c[7] * t446;
        const Q t475 = t473 + t474;
        const Q t476 = t473 - t474;
        const Q t477 = c[7] * t445;
        const Q t478 = t444 + t477;
        // spectrum block of 7, multiplier 6
        const Q t479 = t414 + t430;
        const Q t480 = c[0] * t414;
        const Q t481 = c[1] * t430;
        const Q t482 = t480 - t481;
        const Q t483 = t479 + t478;
        const Q t484 = c[2] * t478;
        const Q t485 = t482 - t484;
        // complex block of 3, multiplier 2
        const Q t486 = t444 - t477;
        // spectrum block of 7, multiplier 6
        const Q t487 = t415 + t431;
        const Q t488 = c[0] * t415;
        const Q t489 = c[1] * t431;
        const Q t490 = t488 - t489;
        const Q t491 = t487 + t486;
        const Q t492 = c[2] * t486;
        const Q t493 = t490 - t492;
        const Q t494 = c[1] * t415;
        const Q t495 = t401 - t494;
        const Q t496 = c[2] * t431;
        const Q t497 = t495 - t496;
        const Q t498 = c[2] * t415;
        const Q t499 = t401 - t498;
        const Q t500 = c[0] * t431;
        const Q t501 = t499 + t500;
        // spectrum block of 7, multiplier 6
        const Q t502 = c[1] * t414;
        const Q t503 = t400 - t502;
        const Q t504 = c[2] * t430;
        const Q t505 = t503 - t504;
        const Q t506 = c[2] * t414;
        const Q t507 = t400 - t506;
        const Q t508 = c[0] * t430;
        const Q t509 = t507 + t508;
        // spectrum block of 7, multiplier 6
        const Q t510 = t491 + t401;
        io.pairs(6, 37, t510);
        const Q t511 = t493 + t401;
        const Q t512 = c[5] * t476;
        const Q t513 = t464 + t512;
        const Q t514 = t511 - t513;
        io.pairs(31, 12, t514);
        const Q t515 = t511 + t513;
        io.pairs(40, 3, t515);
        const Q t516 = c[0] * t486;
        const Q t517 = t497 + t516;
        const Q t518 = c[3] * t476;
        const Q t519 = t467 - t518;
        const Q t520 = t517 - t519;
        io.pairs(24, 19, t520);
        const Q t521 = t517 + t519;
        io.pairs(23, 20, t521);
        const Q t522 = c[1] * t486;
        const Q t523 = t501 - t522;
        const Q t524 = c[4] * t476;
        const Q t525 = t470 + t524;
        const Q t526 = t523 - t525;
        io.pairs(38, 5, t526);
        const Q t527 = t523 + t525;
        io.pairs(10, 33, t527);
        // spectrum block of 7, multiplier 6
        const Q t528 = t483 + t400;
        io.pairs(36, 7, t528);
        const Q t529 = t485 + t400;
        const Q t530 = c[5] * t475;
        const Q t531 = t453 + t530;
        const Q t532 = t529 - t531;
        io.pairs(14, 29, t532);
        const Q t533 = t529 + t531;
        io.pairs(25, 18, t533);
        const Q t534 = c[0] * t478;
        const Q t535 = t505 + t534;
        const Q t536 = c[3] * t475;
        const Q t537 = t456 - t536;
        const Q t538 = t535 - t537;
        io.pairs(15, 28, t538);
        const Q t539 = t535 + t537;
        io.pairs(9, 34, t539);
        const Q t540 = c[1] * t478;
        const Q t541 = t509 - t540;
        const Q t542 = c[4] * t475;
        const Q t543 = t459 + t542;
        const Q t544 = t541 - t543;
        io.pairs(13, 30, t544);
        const Q t545 = t541 + t543;
        io.pairs(17, 26, t545);
        // complex block of 3, multiplier 2
        const Q t546 = t437 + t471;
        // spectrum block of 7, multiplier 6
        const Q t547 = c[0] * t417;
        const Q t548 = c[1] * t434;
        const Q t549 = t547 - t548;
        const Q t550 = c[2] * t442;
        const Q t551 = t549 - t550;
        const Q t552 = c[3] * t406;
        const Q t553 = c[4] * t422;
        const Q t554 = t552 + t553;
        const Q t555 = c[1] * t417;
        const Q t556 = t395 - t555;
        const Q t557 = c[2] * t434;
        const Q t558 = t556 - t557;
        const Q t559 = c[4] * t406;
        const Q t560 = c[5] * t422;
        const Q t561 = t559 - t560;
        const Q t562 = c[2] * t417;
        const Q t563 = t395 - t562;
        const Q t564 = c[0] * t434;
        const Q t565 = t563 + t564;
        const Q t566 = c[5] * t406;
        const Q t567 = c[3] * t422;
        const Q t568 = t566 - t567;
        const Q t569 = t551 + t395;
        const Q t570 = c[5] * t546;
        const Q t571 = t554 + t570;
        const Q t572 = t569 - t571;
        io.pairs(41, 2, t572);
        const Q t573 = t569 + t571;
        io.pairs(21, 22, t573);
        const Q t574 = c[0] * t442;
        const Q t575 = t558 + t574;
        const Q t576 = c[3] * t546;
        const Q t577 = t561 - t576;
        const Q t578 = t575 - t577;
        io.pairs(4, 39, t578);
        const Q t579 = t575 + t577;
        io.pairs(11, 32, t579);
        const Q t580 = c[1] * t442;
        const Q t581 = t565 - t580;
        const Q t582 = c[4] * t546;
        const Q t583 = t568 + t582;
        const Q t584 = t581 - t583;
        io.pairs(35, 8, t584);
        const Q t585 = t581 + t583;
        io.pairs(16, 27, t585);
        const Q t586 = t417 + t434;
        const Q t587 = t586 + t442;
        const Q t588 = t587 + t395;
        io.pairs(1, 42, t588);
    }
};

}  // namespace zulg
