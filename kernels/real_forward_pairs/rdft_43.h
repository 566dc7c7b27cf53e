// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 43.
// Forward DFT of 43 real points, Rader 2, 7, 3; two lanes to a register.
// 153 sums, 115 differences, 177 products of registers, which do the 927 steps of the graph, those with
// `scale` included; 109 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<43> {
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
        0.3012377482182514,  // c[8]: -P[1] of 43
        0.08222826754004824,  // c[9]: Q[1] of 43
        0.3115158140914036,  // c[10]: Q[2] of 43
        0.02153059463206762,  // c[11]: P[2] of 43
        0.20124858610393936,  // c[12]: -P[3] of 43
        0.23875651933592446,  // c[13]: -Q[3] of 43
        0.23076057628931884,  // c[14]: P[4] of 43
        0.2103692595529628,  // c[15]: Q[4] of 43
        0.26511698856704335,  // c[16]: P[5] of 43
        0.16498076041582113,  // c[17]: Q[5] of 43
        0.24532144471548137,  // c[18]: P[6] of 43
        0.19319176405051375,  // c[19]: -Q[6] of 43
        0.3083663744032671,  // c[20]: Q[8] of 43
        0.04915127741599876,  // c[21]: P[8] of 43
        0.10490468278634746,  // c[22]: Q[9] of 43
        0.29410997341765915,  // c[23]: P[9] of 43
        0.3100587997761174,  // c[24]: Q[10] of 43
        0.03700283253527918,  // c[25]: P[10] of 43
        0.2698146808366376,  // c[26]: P[11] of 43
        0.15718049159887415,  // c[27]: Q[11] of 43
        0.30868217300913287,  // c[28]: P[12] of 43
        0.04712732753509521,  // c[29]: Q[12] of 43
        0.049839531053216354,  // c[30]: -P[13] of 43
        0.30825588409410104,  // c[31]: -Q[13] of 43
        0.15726931179327497,  // c[32]: -P[15] of 43
        0.26976291906470395,  // c[33]: Q[15] of 43
        0.3042741226030731,  // c[34]: -P[16] of 43
        0.07016357494006686,  // c[35]: -Q[16] of 43
        0.06938393070305333,  // c[36]: P[17] of 43
        0.3044528520057486,  // c[37]: -Q[17] of 43
        0.18645814945888683,  // c[38]: P[18] of 43
        0.25047759866823976,  // c[39]: -Q[18] of 43
        0.10982914663214519,  // c[40]: Q[19] of 43
        0.29230673527015266,  // c[41]: -P[19] of 43
        0.008407870561774193,  // c[42]: P[20] of 43
        0.31214576185951465,  // c[43]: -Q[20] of 43
        0.023809523809523808,  // c[44]: 1/42
        0.2301120958697675,  // c[45]: P[14] of 43
        0.31109878185126716,  // c[46]: P[7] of 43
        0.21107840313178253,  // c[47]: Q[14] of 43
        0.026892691663313772,  // c[48]: -Q[7] of 43
        0.15612948867385715,  // c[49]: -beta of 43
        0.19928292074129883,  // c[50]: -sin 2 pi 2/3 times P[14] of 43
        0.2694194481695906,  // c[51]: -sin 2 pi 2/3 times P[7] of 43
        0.18279925930237648,  // c[52]: -sin 2 pi 2/3 times Q[14] of 43
        0.023289754156571717,  // c[53]: -sin 2 pi 2/3 times -Q[7] of 43
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x1_9 = io.in(1, 9);
        const P x42_34 = io.in(42, 34);
        // real block of 2
        const P t0 = x1_9 + x42_34;
        const P t1 = x1_9 - x42_34;
        const P x38_41 = io.in(38, 41);
        const P x5_2 = io.in(5, 2);
        // real block of 2
        const P t2 = x38_41 + x5_2;
        const P t3 = x38_41 - x5_2;
        const P x25_10 = io.in(25, 10);
        const P x18_33 = io.in(18, 33);
        // real block of 2
        const P t4 = x25_10 + x18_33;
        const P t5 = x25_10 - x18_33;
        const P x4_36 = io.in(4, 36);
        const P x39_7 = io.in(39, 7);
        // real block of 2
        const P t6 = x4_36 + x39_7;
        const P t7 = x4_36 - x39_7;
        const P x23_35 = io.in(23, 35);
        const P x20_8 = io.in(20, 8);
        // real block of 2
        const P t8 = x23_35 + x20_8;
        const P t9 = x23_35 - x20_8;
        const P x14_40 = io.in(14, 40);
        const P x29_3 = io.in(29, 3);
        // real block of 2
        const P t10 = x14_40 + x29_3;
        const P t11 = x14_40 - x29_3;
        const P x16_15 = io.in(16, 15);
        const P x27_28 = io.in(27, 28);
        // real block of 2
        const P t12 = x16_15 + x27_28;
        const P t13 = x16_15 - x27_28;
        const P x6_11 = io.in(6, 11);
        const P x37_32 = io.in(37, 32);
        // real block of 2
        const P t14 = x6_11 + x37_32;
        const P t15 = x6_11 - x37_32;
        const P x30_31 = io.in(30, 31);
        const P x13_12 = io.in(13, 12);
        // real block of 2
        const P t16 = x30_31 + x13_12;
        const P t17 = shuffled<0, 3>(x13_12, x30_31);
        const P t18 = shuffled<0, 3>(x30_31, x13_12);
        const P t19 = t17 - t18;
        const P x21_17 = io.in(21, 17);
        const P x22_26 = io.in(22, 26);
        // real block of 2
        const P t20 = x21_17 + x22_26;
        const P t21 = x21_17 - x22_26;
        const V x24 = io.in(24);
        const V x19 = io.in(19);
        // real block of 2
        const V t22 = x24 + x19;
        const V t23 = x24 - x19;
        const P t24 = shuffled<1, 3>(t2, t3);
        const P t25 = shuffled<0, 2>(t20, t21);
        // real block of 7, multiplier 6
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        const P t28 = shuffled<1, 3>(t14, t15);
        const P t29 = shuffled<0, 2>(t6, t7);
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        const P t32 = shuffled<0, 2>(t12, t13);
        const P t33 = shuffled<1, 3>(t8, t9);
        const P t34 = t32 + t33;
        const P t35 = t32 - t33;
        const P t36 = t26 + t30;
        const P t37 = t36 + t34;
        const P t38 = shuffled<0, 2>(t0, t1);
        const P t39 = t37 + t38;
        const P t40 = c[0] * t26;
        const P t41 = c[1] * t30;
        const P t42 = t40 - t41;
        const P t43 = c[2] * t34;
        const P t44 = t42 - t43;
        const P t45 = t44 + t38;
        const P t46 = c[3] * t27;
        const P t47 = c[4] * t31;
        const P t48 = t46 - t47;
        const P t49 = c[5] * t35;
        const P t50 = t48 - t49;
        const P t51 = c[1] * t26;
        const P t52 = t38 - t51;
        const P t53 = c[2] * t30;
        const P t54 = t52 - t53;
        const P t55 = c[0] * t34;
        const P t56 = t54 + t55;
        const P t57 = c[4] * t27;
        const P t58 = c[5] * t31;
        const P t59 = t57 + t58;
        const P t60 = c[3] * t35;
        const P t61 = t59 + t60;
        const P t62 = c[2] * t26;
        const P t63 = t38 - t62;
        const P t64 = c[0] * t30;
        const P t65 = t63 + t64;
        const P t66 = c[1] * t34;
        const P t67 = t65 - t66;
        const P t68 = c[5] * t27;
        const P t69 = c[3] * t31;
        const P t70 = t68 + t69;
        const P t71 = c[4] * t35;
        const P t72 = t70 - t71;
        const P t73 = shuffled<0, 2>(t10, t11);
        const P t74 = shuffled<0, 2>(t4, t5);
        // real block of 7, multiplier 6
        const P t75 = t73 + t74;
        const P t76 = t73 - t74;
        const P t77 = shuffled<1, 3>(t0, t1);
        const P t78 = shuffled<1, 3>(t12, t13);
        const P t79 = t77 + t78;
        const P t80 = t77 - t78;
        const P t81 = shuffled<1, 3>(t20, t21);
        const P t82 = shuffled<0, 2>(t16, t19);
        const P t83 = t81 + t82;
        const P t84 = t81 - t82;
        const P t85 = t75 + t79;
        const P t86 = t85 + t83;
        const P t87 = shuffled<1, 3>(t6, t7);
        const P t88 = t86 + t87;
        const P t89 = c[0] * t75;
        const P t90 = c[1] * t79;
        const P t91 = t89 - t90;
        const P t92 = c[2] * t83;
        const P t93 = t91 - t92;
        const P t94 = t93 + t87;
        const P t95 = c[3] * t76;
        const P t96 = c[4] * t80;
        const P t97 = t95 - t96;
        const P t98 = c[5] * t84;
        const P t99 = t97 - t98;
        const P t100 = c[1] * t75;
        const P t101 = t87 - t100;
        const P t102 = c[2] * t79;
        const P t103 = t101 - t102;
        const P t104 = c[0] * t83;
        const P t105 = t103 + t104;
        const P t106 = c[4] * t76;
        const P t107 = c[5] * t80;
        const P t108 = t106 + t107;
        const P t109 = c[3] * t84;
        const P t110 = t108 + t109;
        const P t111 = c[2] * t75;
        const P t112 = t87 - t111;
        const P t113 = c[0] * t79;
        const P t114 = t112 + t113;
        const P t115 = c[1] * t83;
        const P t116 = t114 - t115;
        const P t117 = c[5] * t76;
        const P t118 = c[3] * t80;
        const P t119 = t117 + t118;
        const P t120 = c[4] * t84;
        const P t121 = t119 - t120;
        const P t122 = shuffled<1, 3>(t16, t19);
        const P t123 = shuffled<1, 3>(t10, t11);
        // real block of 7, multiplier 6
        const P t124 = t122 + t123;
        const P t125 = t122 - t123;
        const P t126 = shuffled<0, 2>(t8, t9);
        const P t127 = joined(t22, t23);
        const P t128 = t126 + t127;
        const P t129 = t126 - t127;
        const P t130 = shuffled<1, 3>(t4, t5);
        const P t131 = shuffled<0, 2>(t2, t3);
        const P t132 = t130 + t131;
        const P t133 = t130 - t131;
        const P t134 = t124 + t128;
        const P t135 = t134 + t132;
        const P t136 = shuffled<0, 2>(t14, t15);
        const P t137 = t135 + t136;
        const P t138 = c[0] * t124;
        const P t139 = c[1] * t128;
        const P t140 = t138 - t139;
        const P t141 = c[2] * t132;
        const P t142 = t140 - t141;
        const P t143 = t142 + t136;
        const P t144 = c[3] * t125;
        const P t145 = c[4] * t129;
        const P t146 = t144 - t145;
        const P t147 = c[5] * t133;
        const P t148 = t146 - t147;
        const P t149 = c[1] * t124;
        const P t150 = t136 - t149;
        const P t151 = c[2] * t128;
        const P t152 = t150 - t151;
        const P t153 = c[0] * t132;
        const P t154 = t152 + t153;
        const P t155 = c[4] * t125;
        const P t156 = c[5] * t129;
        const P t157 = t155 + t156;
        const P t158 = c[3] * t133;
        const P t159 = t157 + t158;
        const P t160 = c[2] * t124;
        const P t161 = t136 - t160;
        const P t162 = c[0] * t128;
        const P t163 = t161 + t162;
        const P t164 = c[1] * t132;
        const P t165 = t163 - t164;
        const P t166 = c[5] * t125;
        const P t167 = c[3] * t129;
        const P t168 = t166 + t167;
        const P t169 = c[4] * t133;
        const P t170 = t168 - t169;
        // real block of 3, multiplier 2
        const P t171 = t88 + t137;
        const P t172 = t88 - t137;
        const P t173 = t171 + t39;
        const P t174 = c[6] * t171;
        const P t175 = t39 - t174;
        // complex block of 3, multiplier 2
        const P t176 = t94 + t143;
        const P t177 = t99 + t148;
        const P t178 = t94 - t143;
        const P t179 = t99 - t148;
        const P t180 = t176 + t45;
        const P t181 = t177 + t50;
        const P t182 = c[6] * t176;
        const P t183 = t45 - t182;
        const P t184 = c[6] * t177;
        const P t185 = t50 - t184;
        const P t186 = c[7] * t179;
        const P t187 = t183 + t186;
        const P t188 = c[7] * t178;
        const P t189 = t185 - t188;
        const P t190 = t183 - t186;
        const P t191 = t185 + t188;
        // complex block of 3, multiplier 2
        const P t192 = t105 + t154;
        const P t193 = t110 + t159;
        const P t194 = t105 - t154;
        const P t195 = t110 - t159;
        const P t196 = t192 + t56;
        const P t197 = t193 + t61;
        const P t198 = c[6] * t192;
        const P t199 = t56 - t198;
        const P t200 = c[6] * t193;
        const P t201 = t61 - t200;
        const P t202 = c[7] * t195;
        const P t203 = t199 + t202;
        const P t204 = c[7] * t194;
        const P t205 = t201 - t204;
        const P t206 = t199 - t202;
        const P t207 = t201 + t204;
        // complex block of 3, multiplier 2
        const P t208 = t116 + t165;
        const P t209 = t121 + t170;
        const P t210 = t116 - t165;
        const P t211 = t121 - t170;
        const P t212 = t208 + t67;
        const P t213 = t209 + t72;
        const P t214 = c[6] * t208;
        const P t215 = t67 - t214;
        const P t216 = c[6] * t209;
        const P t217 = t72 - t216;
        const P t218 = c[7] * t211;
        const P t219 = t215 + t218;
        const P t220 = c[7] * t210;
        const P t221 = t217 - t220;
        const P t222 = t215 - t218;
        const P t223 = t217 + t220;
        const V x0 = io.in(0);
        const V t224 = part<0>(t173);
        // real block of 43
        const V t225 = x0 + t224;
        io.re(0, t225);
        const V t226 = c[44] * t224;
        const V t227 = x0 - t226;
        const P t228 = shuffled<1, 3>(t190, t191);
        const P t229 = P(-c[8], c[8]) * t228;
        const P t230 = shuffled<1, 0>(t228);
        const P t231 = c[9] * t230;
        const P t232 = t229 + t231;
        const P t233 = shuffled<0, 2>(t205, t203);
        const P t234 = c[10] * t233;
        const P t235 = shuffled<1, 0>(t233);
        const P t236 = P(c[11], -c[11]) * t235;
        const P t237 = t234 + t236;
        const P t238 = shuffled<1, 3>(t212, t213);
        const P t239 = c[12] * t238;
        const P t240 = shuffled<1, 0>(t238);
        const P t241 = P(c[13], -c[13]) * t240;
        const P t242 = t239 + t241;
        const P t243 = shuffled<0, 2>(t219, t221);
        const P t244 = c[14] * t243;
        const P t245 = shuffled<1, 0>(t243);
        const P t246 = P(-c[15], c[15]) * t245;
        const P t247 = t244 + t246;
        const P t248 = shuffled<1, 3>(t206, t207);
        const P t249 = c[16] * t248;
        const P t250 = shuffled<1, 0>(t248);
        const P t251 = P(-c[17], c[17]) * t250;
        const P t252 = t249 + t251;
        const P t253 = shuffled<0, 2>(t180, t181);
        const P t254 = c[18] * t253;
        const P t255 = shuffled<1, 0>(t253);
        const P t256 = P(c[19], -c[19]) * t255;
        const P t257 = t254 + t256;
        const P t258 = shuffled<0, 2>(t189, t187);
        const P t259 = c[20] * t258;
        const P t260 = shuffled<1, 0>(t258);
        const P t261 = P(c[21], -c[21]) * t260;
        const P t262 = t259 + t261;
        const P t263 = shuffled<1, 3>(t197, t196);
        const P t264 = c[22] * t263;
        const P t265 = shuffled<1, 0>(t263);
        const P t266 = P(c[23], -c[23]) * t265;
        const P t267 = t264 + t266;
        const P t268 = shuffled<0, 2>(t223, t222);
        const P t269 = c[24] * t268;
        const P t270 = shuffled<1, 0>(t268);
        const P t271 = P(c[25], -c[25]) * t270;
        const P t272 = t269 + t271;
        const P t273 = shuffled<1, 3>(t222, t223);
        const P t274 = c[26] * t273;
        const P t275 = shuffled<1, 0>(t273);
        const P t276 = P(-c[27], c[27]) * t275;
        const P t277 = t274 + t276;
        const P t278 = shuffled<0, 2>(t196, t197);
        const P t279 = c[28] * t278;
        const P t280 = shuffled<1, 0>(t278);
        const P t281 = P(-c[29], c[29]) * t280;
        const P t282 = t279 + t281;
        const P t283 = shuffled<1, 3>(t187, t189);
        const P t284 = P(-c[30], c[30]) * t283;
        const P t285 = shuffled<1, 0>(t283);
        const P t286 = c[31] * t285;
        const P t287 = t284 + t286;
        // real block of 3, multiplier 2
        const P t288 = c[7] * t172;
        const P t289 = shuffled<0, 3>(t175, t288);
        // real block of 43
        const P t290 = P(c[45], c[46]) * t289;
        const P t291 = shuffled<0, 3>(t288, t175);
        const P t292 = P(-c[47], c[48]) * t291;
        const P t293 = t290 + t292;
        const P t294 = shuffled<1, 3>(t180, t181);
        const P t295 = P(-c[32], c[32]) * t294;
        const P t296 = shuffled<1, 0>(t294);
        const P t297 = c[33] * t296;
        const P t298 = t295 + t297;
        const P t299 = shuffled<0, 2>(t206, t207);
        const P t300 = c[34] * t299;
        const P t301 = shuffled<1, 0>(t299);
        const P t302 = P(c[35], -c[35]) * t301;
        const P t303 = t300 + t302;
        const P t304 = shuffled<1, 3>(t219, t221);
        const P t305 = c[36] * t304;
        const P t306 = shuffled<1, 0>(t304);
        const P t307 = P(-c[37], c[37]) * t306;
        const P t308 = t305 + t307;
        const P t309 = shuffled<0, 2>(t212, t213);
        const P t310 = c[38] * t309;
        const P t311 = shuffled<1, 0>(t309);
        const P t312 = P(c[39], -c[39]) * t311;
        const P t313 = t310 + t312;
        const P t314 = shuffled<1, 3>(t205, t203);
        const P t315 = c[40] * t314;
        const P t316 = shuffled<1, 0>(t314);
        const P t317 = P(c[41], -c[41]) * t316;
        const P t318 = t315 + t317;
        const P t319 = shuffled<0, 2>(t190, t191);
        const P t320 = c[42] * t319;
        const P t321 = shuffled<1, 0>(t319);
        const P t322 = P(c[43], -c[43]) * t321;
        const P t323 = t320 + t322;
        const V t324 = part<1>(t173);
        const V t325 = c[49] * t324;
        const P t326 = joined(t227, t325);
        // spectrum block of 3
        const P t327 = t293 + t326;
        const P t328 = P(-c[6], c[6]) * t293;
        const P t329 = flipped<0, 1>(t326);
        const P t330 = t328 + t329;
        const P t331 = P(c[50], c[51]) * t291;
        const P t332 = P(c[52], -c[53]) * t289;
        const P t333 = t331 + t332;
        const P t334 = t330 - t333;
        const P t335 = t330 + t333;
        const P t336 = shuffled<1, 2>(t323, t232);
        const P t337 = shuffled<1, 2>(t262, t287);
        // complex block of 3
        const P t338 = t336 - t337;
        const P t339 = shuffled<0, 3>(t323, t232);
        const P t340 = shuffled<0, 3>(t262, t287);
        const P t341 = flipped<0, 1>(t340);
        const P t342 = t339 + t341;
        const P t343 = t336 + t337;
        const P t344 = t339 - t341;
        const P t345 = shuffled<1, 2>(t257, t298);
        const P t346 = t338 + t345;
        const P t347 = shuffled<0, 3>(t257, t298);
        const P t348 = t342 + t347;
        const P t349 = c[6] * t338;
        const P t350 = t345 - t349;
        const P t351 = c[6] * t342;
        const P t352 = t347 - t351;
        const P t353 = c[7] * t344;
        const P t354 = t350 + t353;
        const P t355 = c[7] * t343;
        const P t356 = t352 - t355;
        const P t357 = t350 - t353;
        const P t358 = t352 + t355;
        const P t359 = shuffled<1, 2>(t303, t318);
        const P t360 = shuffled<1, 2>(t237, t252);
        const P t361 = flipped<0, 1>(t360);
        // complex block of 3
        const P t362 = t359 + t361;
        const P t363 = shuffled<0, 3>(t237, t252);
        const P t364 = shuffled<0, 3>(t303, t318);
        const P t365 = flipped<1, 0>(t364);
        const P t366 = t363 + t365;
        const P t367 = flipped<1, 0>(t359);
        const P t368 = t360 + t367;
        const P t369 = t363 - t365;
        const P t370 = flipped<1, 0>(t362);
        const P t371 = shuffled<1, 2>(t282, t267);
        const P t372 = t370 + t371;
        const P t373 = shuffled<0, 3>(t282, t267);
        const P t374 = t366 + t373;
        const P t375 = P(c[6], -c[6]) * t362;
        const P t376 = t371 + t375;
        const P t377 = c[6] * t366;
        const P t378 = t373 - t377;
        const P t379 = P(-c[7], c[7]) * t369;
        const P t380 = t376 + t379;
        const P t381 = P(-c[7], c[7]) * t368;
        const P t382 = t378 + t381;
        const P t383 = t376 - t379;
        const P t384 = t378 - t381;
        const P t385 = shuffled<1, 2>(t247, t308);
        const P t386 = shuffled<1, 2>(t272, t277);
        // complex block of 3
        const P t387 = t385 - t386;
        const P t388 = shuffled<0, 3>(t272, t277);
        const P t389 = shuffled<0, 3>(t247, t308);
        const P t390 = flipped<0, 1>(t389);
        const P t391 = t388 + t390;
        const P t392 = t386 + t385;
        const P t393 = t388 - t390;
        const P t394 = shuffled<1, 2>(t313, t242);
        const P t395 = flipped<0, 1>(t394);
        const P t396 = t387 + t395;
        const P t397 = shuffled<0, 3>(t313, t242);
        const P t398 = t391 + t397;
        const P t399 = P(-c[6], c[6]) * t387;
        const P t400 = t394 + t399;
        const P t401 = c[6] * t391;
        const P t402 = t397 - t401;
        const P t403 = c[7] * t393;
        const P t404 = flipped<0, 1>(t400);
        const P t405 = t403 + t404;
        const P t406 = c[7] * t392;
        const P t407 = t402 + t406;
        const P t408 = flipped<1, 0>(t403);
        const P t409 = t400 + t408;
        const P t410 = t402 - t406;
        // spectrum block of 7, multiplier 3
        const P t411 = t348 + t374;
        const P t412 = t411 + t398;
        const P t413 = flipped<0, 1>(t327);
        const P t414 = t412 + t413;
        io.pair(1, t414);
        const P t415 = c[0] * t348;
        const P t416 = c[1] * t374;
        const P t417 = t415 - t416;
        const P t418 = c[2] * t398;
        const P t419 = t417 - t418;
        const P t420 = t419 + t413;
        const P t421 = c[3] * t346;
        const P t422 = c[4] * t372;
        const P t423 = t421 + t422;
        const P t424 = c[5] * t396;
        const P t425 = t423 + t424;
        const P t426 = t420 - t425;
        io.pair(2, negated<0, 1>(t426));
        const P t427 = t420 + t425;
        io.pair(21, t427);
        const P t428 = P(-c[1], c[1]) * t348;
        const P t429 = t327 + t428;
        const P t430 = P(-c[2], c[2]) * t374;
        const P t431 = t429 + t430;
        const P t432 = c[0] * t398;
        const P t433 = flipped<0, 1>(t431);
        const P t434 = t432 + t433;
        const P t435 = c[4] * t346;
        const P t436 = c[5] * t372;
        const P t437 = t435 - t436;
        const P t438 = c[3] * t396;
        const P t439 = t437 - t438;
        const P t440 = t434 - t439;
        io.pair(4, t440);
        const P t441 = t434 + t439;
        io.pair(11, t441);
        const P t442 = P(-c[2], c[2]) * t348;
        const P t443 = t327 + t442;
        const P t444 = c[0] * t374;
        const P t445 = flipped<0, 1>(t443);
        const P t446 = t444 + t445;
        const P t447 = c[1] * t398;
        const P t448 = t446 - t447;
        const P t449 = c[5] * t346;
        const P t450 = c[3] * t372;
        const P t451 = t449 - t450;
        const P t452 = c[4] * t396;
        const P t453 = t451 + t452;
        const P t454 = t448 - t453;
        io.pair(8, negated<0, 1>(t454));
        const P t455 = t448 + t453;
        io.pair(16, t455);
        const P t456 = shuffled<0, 3>(t356, t358);
        const P t457 = shuffled<0, 3>(t382, t384);
        // spectrum block of 7, multiplier 3
        const P t458 = t456 + t457;
        const P t459 = shuffled<0, 3>(t407, t410);
        const P t460 = t458 + t459;
        const P t461 = shuffled<0, 3>(t334, t335);
        const P t462 = t460 + t461;
        const P t463 = c[0] * t456;
        const P t464 = c[1] * t457;
        const P t465 = t463 - t464;
        const P t466 = c[2] * t459;
        const P t467 = t465 - t466;
        const P t468 = t467 + t461;
        const P t469 = shuffled<0, 3>(t354, t357);
        const P t470 = c[3] * t469;
        const P t471 = shuffled<0, 3>(t380, t383);
        const P t472 = c[4] * t471;
        const P t473 = t470 + t472;
        const P t474 = shuffled<0, 3>(t405, t409);
        const P t475 = P(c[5], -c[5]) * t474;
        const P t476 = t473 + t475;
        const P t477 = t468 - t476;
        const P t478 = t468 + t476;
        const P t479 = c[1] * t456;
        const P t480 = t461 - t479;
        const P t481 = c[2] * t457;
        const P t482 = t480 - t481;
        const P t483 = c[0] * t459;
        const P t484 = t482 + t483;
        const P t485 = c[4] * t469;
        const P t486 = c[5] * t471;
        const P t487 = t485 - t486;
        const P t488 = P(-c[3], c[3]) * t474;
        const P t489 = t487 + t488;
        const P t490 = t484 - t489;
        const P t491 = t484 + t489;
        const P t492 = c[2] * t456;
        const P t493 = t461 - t492;
        const P t494 = c[0] * t457;
        const P t495 = t493 + t494;
        const P t496 = c[1] * t459;
        const P t497 = t495 - t496;
        const P t498 = c[5] * t469;
        const P t499 = c[3] * t471;
        const P t500 = t498 - t499;
        const P t501 = P(c[4], -c[4]) * t474;
        const P t502 = t500 + t501;
        const P t503 = t497 - t502;
        const P t504 = t497 + t502;
        const P t505 = shuffled<0, 3>(t358, t356);
        const P t506 = shuffled<0, 3>(t384, t382);
        // spectrum block of 7, multiplier 3
        const P t507 = t505 + t506;
        const P t508 = shuffled<0, 3>(t410, t407);
        const P t509 = t507 + t508;
        const P t510 = shuffled<0, 3>(t335, t334);
        const P t511 = t509 + t510;
        const P t512 = shuffled<0, 3>(t511, t462);
        io.pair(6, t512);
        const P t513 = shuffled<0, 3>(t462, t511);
        io.pair(7, negated<0, 1>(t513));
        const P t514 = c[0] * t505;
        const P t515 = c[1] * t506;
        const P t516 = t514 - t515;
        const P t517 = c[2] * t508;
        const P t518 = t516 - t517;
        const P t519 = t518 + t510;
        const P t520 = shuffled<0, 3>(t357, t354);
        const P t521 = c[3] * t520;
        const P t522 = shuffled<0, 3>(t383, t380);
        const P t523 = c[4] * t522;
        const P t524 = t521 + t523;
        const P t525 = shuffled<0, 3>(t409, t405);
        const P t526 = c[5] * t525;
        const P t527 = t524 + t526;
        const P t528 = t519 - t527;
        const P t529 = shuffled<0, 3>(t528, t477);
        io.pair(12, negated<0, 1>(t529));
        const P t530 = shuffled<0, 3>(t477, t528);
        io.pair(14, t530);
        const P t531 = t519 + t527;
        const P t532 = shuffled<0, 3>(t531, t478);
        io.pair(3, negated<0, 1>(t532));
        const P t533 = shuffled<0, 3>(t478, t531);
        io.pair(18, negated<0, 1>(t533));
        const P t534 = c[1] * t505;
        const P t535 = t510 - t534;
        const P t536 = c[2] * t506;
        const P t537 = t535 - t536;
        const P t538 = c[0] * t508;
        const P t539 = t537 + t538;
        const P t540 = c[4] * t520;
        const P t541 = c[5] * t522;
        const P t542 = t540 - t541;
        const P t543 = c[3] * t525;
        const P t544 = t542 - t543;
        const P t545 = t539 - t544;
        const P t546 = shuffled<0, 3>(t490, t545);
        io.pair(15, t546);
        const P t547 = shuffled<0, 3>(t545, t490);
        io.pair(19, negated<0, 1>(t547));
        const P t548 = t539 + t544;
        const P t549 = shuffled<0, 3>(t491, t548);
        io.pair(9, t549);
        const P t550 = shuffled<0, 3>(t548, t491);
        io.pair(20, negated<0, 1>(t550));
        const P t551 = c[2] * t505;
        const P t552 = t510 - t551;
        const P t553 = c[0] * t506;
        const P t554 = t552 + t553;
        const P t555 = c[1] * t508;
        const P t556 = t554 - t555;
        const P t557 = c[5] * t520;
        const P t558 = c[3] * t522;
        const P t559 = t557 - t558;
        const P t560 = c[4] * t525;
        const P t561 = t559 + t560;
        const P t562 = t556 - t561;
        const P t563 = shuffled<0, 3>(t562, t503);
        io.pair(5, negated<0, 1>(t563));
        const P t564 = shuffled<0, 3>(t503, t562);
        io.pair(13, t564);
        const P t565 = t556 + t561;
        const P t566 = shuffled<0, 3>(t565, t504);
        io.pair(10, t566);
        const P t567 = shuffled<0, 3>(t504, t565);
        io.pair(17, t567);
    }
};

}  // namespace zulg
