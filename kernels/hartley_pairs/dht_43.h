// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 43.
// Hartley transform of 43 points, form I; two lanes to a register.
// 170 sums, 120 differences, 177 products of registers, which do the 969 steps of the graph, those with
// `scale` included; 100 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<43> {
    static constexpr int steps = 969;  // with `scale`
    static constexpr double inverseRoot = 0.15249857033260467;  // 1/sqrt(43), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 3/7
        0.6234898018587335,  // c[1]: cos 2 pi 15/7
        0.2225209339563144,  // c[2]: -cos 2 pi 12/7
        0.9749279121818236,  // c[3]: -sin 2 pi 12/7
        0.4338837391175581,  // c[4]: sin 2 pi 3/7
        0.7818314824680298,  // c[5]: sin 2 pi 15/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
        0.3012377482182514,  // c[8]: P[1] of 43
        0.08222826754004824,  // c[9]: Q[1] of 43
        0.3115158140914036,  // c[10]: Q[2] of 43
        0.02153059463206762,  // c[11]: P[2] of 43
        0.23875651933592446,  // c[12]: -Q[3] of 43
        0.20124858610393936,  // c[13]: P[3] of 43
        0.23076057628931884,  // c[14]: P[4] of 43
        0.2103692595529628,  // c[15]: Q[4] of 43
        0.16498076041582113,  // c[16]: Q[5] of 43
        0.26511698856704335,  // c[17]: -P[5] of 43
        0.24532144471548137,  // c[18]: P[6] of 43
        0.19319176405051375,  // c[19]: -Q[6] of 43
        0.3083663744032671,  // c[20]: Q[8] of 43
        0.04915127741599876,  // c[21]: P[8] of 43
        0.10490468278634746,  // c[22]: Q[9] of 43
        0.29410997341765915,  // c[23]: -P[9] of 43
        0.3100587997761174,  // c[24]: Q[10] of 43
        0.03700283253527918,  // c[25]: P[10] of 43
        0.15718049159887415,  // c[26]: Q[11] of 43
        0.2698146808366376,  // c[27]: -P[11] of 43
        0.30868217300913287,  // c[28]: P[12] of 43
        0.04712732753509521,  // c[29]: Q[12] of 43
        0.049839531053216354,  // c[30]: P[13] of 43
        0.30825588409410104,  // c[31]: -Q[13] of 43
        0.15726931179327497,  // c[32]: P[15] of 43
        0.26976291906470395,  // c[33]: Q[15] of 43
        0.3042741226030731,  // c[34]: -P[16] of 43
        0.07016357494006686,  // c[35]: -Q[16] of 43
        0.3044528520057486,  // c[36]: -Q[17] of 43
        0.06938393070305333,  // c[37]: -P[17] of 43
        0.18645814945888683,  // c[38]: P[18] of 43
        0.25047759866823976,  // c[39]: -Q[18] of 43
        0.10982914663214519,  // c[40]: Q[19] of 43
        0.29230673527015266,  // c[41]: P[19] of 43
        0.008407870561774193,  // c[42]: P[20] of 43
        0.31214576185951465,  // c[43]: -Q[20] of 43
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
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x42_41 = io.in(42, 41);
        // input stage
        const P t0 = x1_2 + x42_41;
        const P t1 = x1_2 - x42_41;
        const P x3_4 = io.in(3, 4);
        const P x40_39 = io.in(40, 39);
        const P t2 = x3_4 + x40_39;
        const P t3 = x3_4 - x40_39;
        const P x5_6 = io.in(5, 6);
        const P x38_37 = io.in(38, 37);
        const P t4 = x5_6 + x38_37;
        const P t5 = x5_6 - x38_37;
        const P x7_8 = io.in(7, 8);
        const P x36_35 = io.in(36, 35);
        const P t6 = x7_8 + x36_35;
        const P t7 = x7_8 - x36_35;
        const P x9_10 = io.in(9, 10);
        const P x34_33 = io.in(34, 33);
        const P t8 = x9_10 + x34_33;
        const P t9 = x9_10 - x34_33;
        const P x11_12 = io.in(11, 12);
        const P x32_31 = io.in(32, 31);
        const P t10 = x11_12 + x32_31;
        const P t11 = x11_12 - x32_31;
        const P x13_14 = io.in(13, 14);
        const P x30_29 = io.in(30, 29);
        const P t12 = x13_14 + x30_29;
        const P t13 = x13_14 - x30_29;
        const P x15_16 = io.in(15, 16);
        const P x28_27 = io.in(28, 27);
        const P t14 = x15_16 + x28_27;
        const P t15 = x15_16 - x28_27;
        const P x17_18 = io.in(17, 18);
        const P x26_25 = io.in(26, 25);
        const P t16 = x17_18 + x26_25;
        const P t17 = x17_18 - x26_25;
        const P x19_20 = io.in(19, 20);
        const P x24_23 = io.in(24, 23);
        const P t18 = x19_20 + x24_23;
        const P t19 = x19_20 - x24_23;
        const V x21 = io.in(21);
        const V x22 = io.in(22);
        const V t20 = x21 + x22;
        const V t21 = x21 - x22;
        const P t22 = shuffled<1, 3>(t14, t15);
        const P t23 = shuffled<1, 3>(t6, t7);
        const P t24 = flipped<0, 1>(t23);
        // real block of 7, multiplier 3
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P t27 = joined(t20, t21);
        const P t28 = shuffled<1, 3>(t0, t1);
        const P t29 = flipped<0, 1>(t28);
        const P t30 = t27 + t29;
        const P t31 = t27 - t29;
        const P t32 = shuffled<1, 3>(t2, t3);
        const P t33 = shuffled<0, 2>(t10, t11);
        const P t34 = t32 + t33;
        const P t35 = t32 - t33;
        const P t36 = t25 + t30;
        const P t37 = t36 + t34;
        const P t38 = shuffled<0, 2>(t0, t1);
        const P t39 = t37 + t38;
        const P t40 = c[0] * t25;
        const P t41 = t38 - t40;
        const P t42 = c[1] * t30;
        const P t43 = t41 + t42;
        const P t44 = c[2] * t34;
        const P t45 = t43 - t44;
        const P t46 = c[3] * t35;
        const P t47 = c[4] * t26;
        const P t48 = t46 - t47;
        const P t49 = c[5] * t31;
        const P t50 = t48 - t49;
        const P t51 = c[1] * t25;
        const P t52 = c[2] * t30;
        const P t53 = t51 - t52;
        const P t54 = c[0] * t34;
        const P t55 = t53 - t54;
        const P t56 = t55 + t38;
        const P t57 = c[5] * t26;
        const P t58 = c[3] * t31;
        const P t59 = t57 - t58;
        const P t60 = c[4] * t35;
        const P t61 = t59 - t60;
        const P t62 = c[2] * t25;
        const P t63 = t38 - t62;
        const P t64 = c[0] * t30;
        const P t65 = t63 - t64;
        const P t66 = c[1] * t34;
        const P t67 = t65 + t66;
        const P t68 = c[3] * t26;
        const P t69 = c[4] * t31;
        const P t70 = t68 + t69;
        const P t71 = c[5] * t35;
        const P t72 = t70 + t71;
        const P t73 = shuffled<1, 3>(t8, t9);
        const P t74 = shuffled<0, 2>(t4, t5);
        const P t75 = flipped<0, 1>(t74);
        // real block of 7, multiplier 3
        const P t76 = t73 + t75;
        const P t77 = t73 - t75;
        const P t78 = shuffled<0, 2>(t2, t3);
        const P t79 = shuffled<1, 3>(t10, t11);
        const P t80 = t78 + t79;
        const P t81 = shuffled<0, 3>(t78, t79);
        const P t82 = shuffled<0, 3>(t79, t78);
        const P t83 = t81 - t82;
        const P t84 = shuffled<0, 2>(t18, t19);
        const P t85 = shuffled<1, 3>(t18, t19);
        const P t86 = t84 + t85;
        const P t87 = shuffled<0, 3>(t84, t85);
        const P t88 = shuffled<0, 3>(t85, t84);
        const P t89 = t87 - t88;
        const P t90 = flipped<0, 1>(t80);
        const P t91 = t76 + t90;
        const P t92 = flipped<0, 1>(t86);
        const P t93 = t91 + t92;
        const P t94 = shuffled<1, 3>(t4, t5);
        const P t95 = t93 + t94;
        const P t96 = c[0] * t76;
        const P t97 = t94 - t96;
        const P t98 = P(c[1], -c[1]) * t80;
        const P t99 = t97 + t98;
        const P t100 = P(-c[2], c[2]) * t86;
        const P t101 = t99 + t100;
        const P t102 = c[3] * t89;
        const P t103 = c[4] * t77;
        const P t104 = t102 - t103;
        const P t105 = c[5] * t83;
        const P t106 = t104 - t105;
        const P t107 = c[1] * t76;
        const P t108 = P(-c[2], c[2]) * t80;
        const P t109 = t107 + t108;
        const P t110 = P(-c[0], c[0]) * t86;
        const P t111 = t109 + t110;
        const P t112 = t111 + t94;
        const P t113 = c[5] * t77;
        const P t114 = c[3] * t83;
        const P t115 = t113 - t114;
        const P t116 = c[4] * t89;
        const P t117 = t115 - t116;
        const P t118 = c[2] * t76;
        const P t119 = t94 - t118;
        const P t120 = P(-c[0], c[0]) * t80;
        const P t121 = t119 + t120;
        const P t122 = P(c[1], -c[1]) * t86;
        const P t123 = t121 + t122;
        const P t124 = c[3] * t77;
        const P t125 = c[4] * t83;
        const P t126 = t124 + t125;
        const P t127 = c[5] * t89;
        const P t128 = t126 + t127;
        const P t129 = shuffled<0, 2>(t16, t17);
        const P t130 = shuffled<0, 2>(t12, t13);
        // real block of 7, multiplier 3
        const P t131 = t129 + t130;
        const P t132 = t129 - t130;
        const P t133 = shuffled<1, 3>(t16, t13);
        const P t134 = shuffled<1, 3>(t12, t17);
        const P t135 = flipped<0, 1>(t134);
        const P t136 = t133 + t135;
        const P t137 = t133 - t135;
        const P t138 = shuffled<0, 2>(t14, t15);
        const P t139 = shuffled<0, 2>(t8, t9);
        const P t140 = t138 + t139;
        const P t141 = t138 - t139;
        const P t142 = t131 + t136;
        const P t143 = t142 + t140;
        const P t144 = shuffled<0, 2>(t6, t7);
        const P t145 = flipped<0, 1>(t144);
        const P t146 = t143 + t145;
        const P t147 = P(-c[0], c[0]) * t131;
        const P t148 = t144 + t147;
        const P t149 = c[1] * t136;
        const P t150 = flipped<0, 1>(t148);
        const P t151 = t149 + t150;
        const P t152 = c[2] * t140;
        const P t153 = t151 - t152;
        const P t154 = P(-c[4], c[4]) * t132;
        const P t155 = c[5] * t137;
        const P t156 = shuffled<0, 3>(t154, t155);
        const P t157 = c[3] * t141;
        const P t158 = t156 + t157;
        const P t159 = shuffled<0, 3>(t155, t154);
        const P t160 = t158 - t159;
        const P t161 = c[1] * t131;
        const P t162 = c[2] * t136;
        const P t163 = t161 - t162;
        const P t164 = c[0] * t140;
        const P t165 = t163 - t164;
        const P t166 = t165 + t145;
        const P t167 = c[5] * t132;
        const P t168 = P(-c[3], c[3]) * t137;
        const P t169 = t167 + t168;
        const P t170 = c[4] * t141;
        const P t171 = t169 - t170;
        const P t172 = P(-c[2], c[2]) * t131;
        const P t173 = t144 + t172;
        const P t174 = P(-c[0], c[0]) * t136;
        const P t175 = t173 + t174;
        const P t176 = c[1] * t140;
        const P t177 = flipped<0, 1>(t175);
        const P t178 = t176 + t177;
        const P t179 = c[4] * t137;
        const P t180 = P(c[3], -c[3]) * t132;
        const P t181 = t179 + t180;
        const P t182 = P(c[5], -c[5]) * t141;
        const P t183 = t181 + t182;
        // real block of 3
        const P t184 = t95 + t146;
        const P t185 = t95 - t146;
        const P t186 = t184 + t39;
        const P t187 = c[6] * t184;
        const P t188 = t39 - t187;
        // complex block of 3
        const P t189 = t101 + t153;
        const P t190 = t106 + t160;
        const P t191 = t101 - t153;
        const P t192 = t106 - t160;
        const P t193 = t189 + t45;
        const P t194 = t190 + t50;
        const P t195 = c[6] * t189;
        const P t196 = t45 - t195;
        const P t197 = c[6] * t190;
        const P t198 = t50 - t197;
        const P t199 = c[7] * t192;
        const P t200 = t196 + t199;
        const P t201 = c[7] * t191;
        const P t202 = t198 - t201;
        const P t203 = t196 - t199;
        const P t204 = t198 + t201;
        // complex block of 3
        const P t205 = t112 + t166;
        const P t206 = t117 + t171;
        const P t207 = t112 - t166;
        const P t208 = t117 - t171;
        const P t209 = t205 + t56;
        const P t210 = t206 + t61;
        const P t211 = c[6] * t205;
        const P t212 = t56 - t211;
        const P t213 = c[6] * t206;
        const P t214 = t61 - t213;
        const P t215 = c[7] * t208;
        const P t216 = t212 + t215;
        const P t217 = c[7] * t207;
        const P t218 = t214 - t217;
        const P t219 = t212 - t215;
        const P t220 = t214 + t217;
        // complex block of 3
        const P t221 = t123 + t178;
        const P t222 = flipped<0, 1>(t128);
        const P t223 = t183 + t222;
        const P t224 = t123 - t178;
        const P t225 = t183 - t222;
        const P t226 = t221 + t67;
        const P t227 = flipped<0, 1>(t72);
        const P t228 = t223 + t227;
        const P t229 = c[6] * t221;
        const P t230 = t67 - t229;
        const P t231 = c[6] * t223;
        const P t232 = t231 - t227;
        const P t233 = P(c[7], -c[7]) * t225;
        const P t234 = t230 + t233;
        const P t235 = P(-c[7], c[7]) * t224;
        const P t236 = t232 + t235;
        const P t237 = t230 - t233;
        const P t238 = shuffled<0, 3>(t232, t235);
        const P t239 = shuffled<0, 3>(t235, t232);
        const P t240 = t238 - t239;
        const V x0 = io.in(0);
        const V t241 = part<0>(t186);
        // spectrum block of 43
        const V t242 = c[44] * t241;
        const V t243 = x0 - t242;
        const P t244 = shuffled<1, 3>(t202, t200);
        const P t245 = c[8] * t244;
        const P t246 = shuffled<1, 0>(t244);
        const P t247 = P(c[9], -c[9]) * t246;
        const P t248 = t245 + t247;
        const P t249 = shuffled<0, 2>(t220, t219);
        const P t250 = c[10] * t249;
        const P t251 = shuffled<1, 0>(t249);
        const P t252 = P(c[11], -c[11]) * t251;
        const P t253 = t250 + t252;
        const P t254 = shuffled<1, 3>(t226, t228);
        const P t255 = P(-c[12], c[12]) * t254;
        const P t256 = shuffled<1, 0>(t254);
        const P t257 = c[13] * t256;
        const P t258 = t255 + t257;
        const P t259 = shuffled<0, 2>(t237, t240);
        const P t260 = c[14] * t259;
        const P t261 = shuffled<1, 0>(t259);
        const P t262 = P(-c[15], c[15]) * t261;
        const P t263 = t260 + t262;
        const P t264 = shuffled<1, 3>(t216, t218);
        const P t265 = c[16] * t264;
        const P t266 = shuffled<1, 0>(t264);
        const P t267 = P(c[17], -c[17]) * t266;
        const P t268 = t265 + t267;
        const P t269 = shuffled<0, 2>(t193, t194);
        const P t270 = c[18] * t269;
        const P t271 = shuffled<1, 0>(t269);
        const P t272 = P(c[19], -c[19]) * t271;
        const P t273 = t270 + t272;
        const P t274 = shuffled<0, 2>(t204, t203);
        const P t275 = c[20] * t274;
        const P t276 = shuffled<1, 0>(t274);
        const P t277 = P(c[21], -c[21]) * t276;
        const P t278 = t275 + t277;
        const P t279 = shuffled<1, 3>(t209, t210);
        const P t280 = c[22] * t279;
        const P t281 = shuffled<1, 0>(t279);
        const P t282 = P(-c[23], c[23]) * t281;
        const P t283 = t280 + t282;
        const P t284 = shuffled<0, 2>(t236, t234);
        const P t285 = c[24] * t284;
        const P t286 = shuffled<1, 0>(t284);
        const P t287 = P(c[25], -c[25]) * t286;
        const P t288 = t285 + t287;
        const P t289 = shuffled<1, 3>(t234, t236);
        const P t290 = c[26] * t289;
        const P t291 = shuffled<1, 0>(t289);
        const P t292 = P(-c[27], c[27]) * t291;
        const P t293 = t290 + t292;
        const P t294 = shuffled<0, 2>(t209, t210);
        const P t295 = c[28] * t294;
        const P t296 = shuffled<1, 0>(t294);
        const P t297 = P(-c[29], c[29]) * t296;
        const P t298 = t295 + t297;
        const P t299 = shuffled<1, 3>(t204, t203);
        const P t300 = c[30] * t299;
        const P t301 = shuffled<1, 0>(t299);
        const P t302 = P(c[31], -c[31]) * t301;
        const P t303 = t300 + t302;
        // real block of 3
        const P t304 = c[7] * t185;
        const P t305 = shuffled<0, 3>(t188, t304);
        // spectrum block of 43
        const P t306 = P(c[45], c[46]) * t305;
        const P t307 = shuffled<0, 3>(t304, t188);
        const P t308 = P(c[47], -c[48]) * t307;
        const P t309 = t306 + t308;
        const P t310 = shuffled<1, 3>(t194, t193);
        const P t311 = c[32] * t310;
        const P t312 = shuffled<1, 0>(t310);
        const P t313 = P(c[33], -c[33]) * t312;
        const P t314 = t311 + t313;
        const P t315 = shuffled<0, 2>(t216, t218);
        const P t316 = c[34] * t315;
        const P t317 = shuffled<1, 0>(t315);
        const P t318 = P(c[35], -c[35]) * t317;
        const P t319 = t316 + t318;
        const P t320 = shuffled<1, 3>(t237, t240);
        const P t321 = c[36] * t320;
        const P t322 = shuffled<1, 0>(t320);
        const P t323 = P(c[37], -c[37]) * t322;
        const P t324 = t321 + t323;
        const P t325 = shuffled<0, 2>(t226, t228);
        const P t326 = c[38] * t325;
        const P t327 = shuffled<1, 0>(t325);
        const P t328 = P(-c[39], c[39]) * t327;
        const P t329 = t326 + t328;
        const P t330 = shuffled<1, 3>(t219, t220);
        const P t331 = c[40] * t330;
        const P t332 = shuffled<1, 0>(t330);
        const P t333 = P(-c[41], c[41]) * t332;
        const P t334 = t331 + t333;
        const P t335 = shuffled<0, 2>(t200, t202);
        const P t336 = c[42] * t335;
        const P t337 = shuffled<1, 0>(t335);
        const P t338 = P(c[43], -c[43]) * t337;
        const P t339 = t336 + t338;
        const P t340 = flipped<1, 0>(t324);
        // complex block of 3, multiplier 2
        const P t341 = t340 + t293;
        const P t342 = flipped<0, 1>(t293);
        const P t343 = t324 + t342;
        const P t344 = t341 + t258;
        const P t345 = c[6] * t341;
        const P t346 = t258 - t345;
        const P t347 = c[7] * t343;
        const P t348 = shuffled<1, 0>(t347);
        const P t349 = t346 - t348;
        const P t350 = t346 + t348;
        const P t351 = flipped<0, 1>(t278);
        // complex block of 3, multiplier 2
        const P t352 = t339 + t351;
        const P t353 = t339 - t351;
        const P t354 = t352 + t273;
        const P t355 = c[6] * t352;
        const P t356 = t273 - t355;
        const P t357 = P(c[7], -c[7]) * t353;
        const P t358 = shuffled<1, 0>(t357);
        const P t359 = t356 + t358;
        const P t360 = t356 - t358;
        // complex block of 3, multiplier 2
        const P t361 = t334 + t268;
        const P t362 = shuffled<0, 3>(t334, t268);
        const P t363 = shuffled<0, 3>(t268, t334);
        const P t364 = t362 - t363;
        const P t365 = t361 + t283;
        const P t366 = P(-c[6], c[6]) * t361;
        const P t367 = flipped<0, 1>(t283);
        const P t368 = t366 + t367;
        const P t369 = P(c[7], -c[7]) * t364;
        const P t370 = shuffled<1, 0>(t369);
        const P t371 = t368 + t370;
        const P t372 = t368 - t370;
        const P t373 = flipped<1, 0>(t319);
        // complex block of 3, multiplier 2
        const P t374 = t373 + t253;
        const P t375 = t253 - t373;
        const P t376 = flipped<0, 1>(t374);
        const P t377 = t298 + t376;
        const P t378 = P(-c[6], c[6]) * t374;
        const P t379 = t378 + t298;
        const P t380 = c[7] * t375;
        const P t381 = shuffled<1, 0>(t380);
        const P t382 = t379 - t381;
        const P t383 = t379 + t381;
        // complex block of 3, multiplier 2
        const P t384 = t248 - t303;
        const P t385 = t303 + t248;
        const P t386 = t384 + t314;
        const P t387 = c[6] * t384;
        const P t388 = t314 - t387;
        const P t389 = P(-c[7], c[7]) * t385;
        const P t390 = shuffled<1, 0>(t389);
        const P t391 = t388 + t390;
        const P t392 = t388 - t390;
        const P t393 = flipped<0, 1>(t288);
        // complex block of 3, multiplier 2
        const P t394 = t263 + t393;
        const P t395 = flipped<1, 0>(t263);
        const P t396 = t288 + t395;
        const P t397 = flipped<0, 1>(t329);
        const P t398 = t394 + t397;
        const P t399 = P(-c[6], c[6]) * t394;
        const P t400 = t329 + t399;
        const P t401 = c[7] * t396;
        const P t402 = shuffled<0, 2>(t400, t401);
        const P t403 = shuffled<1, 3>(t401, t400);
        const P t404 = flipped<1, 0>(t403);
        const P t405 = t402 - t404;
        const P t406 = t404 + t402;
        const V t407 = part<1>(t186);
        // spectrum block of 43
        const V t408 = -c[49] * t407;
        const P t409 = joined(t243, t408);
        // spectrum block of 3, multiplier 2
        const P t410 = t309 + t409;
        const P t411 = flipped<0, 1>(t409);
        const P t412 = P(-c[6], c[6]) * t309;
        const P t413 = t411 + t412;
        const P t414 = P(c[50], c[51]) * t305;
        const P t415 = P(-c[52], c[53]) * t307;
        const P t416 = t414 + t415;
        const P t417 = flipped<1, 0>(t416);
        const P t418 = t413 + t417;
        const P t419 = flipped<0, 1>(t413);
        const P t420 = t416 + t419;
        const P t421 = shuffled<0, 2>(t410, t420);
        const P t422 = shuffled<1, 3>(t410, t420);
        // spectrum block of 2
        const P t423 = t421 + t422;
        const P t424 = t421 - t422;
        const P t425 = shuffled<1, 3>(t354, t360);
        const P t426 = shuffled<1, 3>(t386, t392);
        // complex block of 2
        const P t427 = t425 - t426;
        const P t428 = shuffled<0, 2>(t354, t360);
        const P t429 = shuffled<0, 2>(t386, t392);
        const P t430 = t428 + t429;
        const P t431 = t425 + t426;
        const P t432 = t428 - t429;
        const P t433 = shuffled<1, 3>(t377, t383);
        const P t434 = shuffled<1, 3>(t365, t372);
        const P t435 = flipped<0, 1>(t434);
        // complex block of 2
        const P t436 = t433 + t435;
        const P t437 = shuffled<0, 2>(t377, t383);
        const P t438 = shuffled<0, 2>(t365, t372);
        const P t439 = t437 + t438;
        const P t440 = t433 - t435;
        const P t441 = t437 - t438;
        const P t442 = shuffled<1, 3>(t398, t406);
        const P t443 = shuffled<1, 3>(t344, t350);
        const P t444 = flipped<1, 0>(t443);
        // complex block of 2
        const P t445 = t442 + t444;
        const P t446 = shuffled<0, 2>(t398, t406);
        const P t447 = shuffled<0, 2>(t344, t350);
        const P t448 = t446 + t447;
        const P t449 = flipped<0, 1>(t442);
        const P t450 = t443 + t449;
        const P t451 = t446 - t447;
        // spectrum block of 7, multiplier 6
        const P t452 = t430 + t439;
        const P t453 = t452 + t448;
        const P t454 = t453 + t423;
        io.out(42, 37, t454);
        const P t455 = c[1] * t430;
        const P t456 = c[2] * t439;
        const P t457 = t455 - t456;
        const P t458 = c[0] * t448;
        const P t459 = t457 - t458;
        const P t460 = t459 + t423;
        const P t461 = c[5] * t427;
        const P t462 = c[3] * t436;
        const P t463 = t461 + t462;
        const P t464 = P(c[4], -c[4]) * t445;
        const P t465 = t463 + t464;
        const P t466 = t460 - t465;
        io.out(2, 12, t466);
        const P t467 = t460 + t465;
        io.out(22, 3, t467);
        const P t468 = c[2] * t430;
        const P t469 = t423 - t468;
        const P t470 = c[0] * t439;
        const P t471 = t469 - t470;
        const P t472 = c[1] * t448;
        const P t473 = t471 + t472;
        const P t474 = c[3] * t427;
        const P t475 = c[4] * t436;
        const P t476 = t474 - t475;
        const P t477 = P(-c[5], c[5]) * t445;
        const P t478 = t476 + t477;
        const P t479 = t473 - t478;
        io.out(39, 19, t479);
        const P t480 = t473 + t478;
        io.out(32, 20, t480);
        const P t481 = c[0] * t430;
        const P t482 = t423 - t481;
        const P t483 = c[1] * t439;
        const P t484 = t482 + t483;
        const P t485 = c[2] * t448;
        const P t486 = t484 - t485;
        const P t487 = c[4] * t427;
        const P t488 = c[5] * t436;
        const P t489 = t487 - t488;
        const P t490 = P(c[3], -c[3]) * t445;
        const P t491 = t489 + t490;
        const P t492 = t486 - t491;
        io.out(8, 5, t492);
        const P t493 = t486 + t491;
        io.out(27, 33, t493);
        // spectrum block of 7, multiplier 6
        const P t494 = t432 + t441;
        const P t495 = t494 + t451;
        const P t496 = t495 + t424;
        io.out(1, 6, t496);
        const P t497 = c[1] * t432;
        const P t498 = c[2] * t441;
        const P t499 = t497 - t498;
        const P t500 = c[0] * t451;
        const P t501 = t499 - t500;
        const P t502 = t501 + t424;
        const P t503 = c[5] * t431;
        const P t504 = c[3] * t440;
        const P t505 = t503 + t504;
        const P t506 = c[4] * t450;
        const P t507 = t505 + t506;
        const P t508 = t502 - t507;
        io.out(41, 31, t508);
        const P t509 = t502 + t507;
        io.out(21, 40, t509);
        const P t510 = c[2] * t432;
        const P t511 = t424 - t510;
        const P t512 = c[0] * t441;
        const P t513 = t511 - t512;
        const P t514 = c[1] * t451;
        const P t515 = t513 + t514;
        const P t516 = c[3] * t431;
        const P t517 = c[4] * t440;
        const P t518 = t516 - t517;
        const P t519 = c[5] * t450;
        const P t520 = t518 - t519;
        const P t521 = t515 - t520;
        io.out(4, 24, t521);
        const P t522 = t515 + t520;
        io.out(11, 23, t522);
        const P t523 = c[0] * t432;
        const P t524 = t424 - t523;
        const P t525 = c[1] * t441;
        const P t526 = t524 + t525;
        const P t527 = c[2] * t451;
        const P t528 = t526 - t527;
        const P t529 = c[4] * t431;
        const P t530 = c[5] * t440;
        const P t531 = t529 - t530;
        const P t532 = c[3] * t450;
        const P t533 = t531 + t532;
        const P t534 = t528 - t533;
        io.out(35, 38, t534);
        const P t535 = t528 + t533;
        io.out(16, 10, t535);
        const V t536 = part<0>(t418);
        const V t537 = part<1>(t418);
        // spectrum block of 2
        const V t538 = t536 - t537;
        const V t539 = t536 + t537;
        const P t540 = flipped<0, 1>(t391);
        // complex block of 2
        const P t541 = t359 + t540;
        const P t542 = t359 - t540;
        const P t543 = flipped<0, 1>(t371);
        // complex block of 2
        const P t544 = t382 + t543;
        const P t545 = t382 - t543;
        const P t546 = flipped<0, 1>(t349);
        // complex block of 2
        const P t547 = t405 + t546;
        const P t548 = t405 - t546;
        const P t549 = shuffled<0, 2>(t541, t542);
        const P t550 = shuffled<0, 2>(t544, t545);
        // spectrum block of 7, multiplier 6
        const P t551 = t549 + t550;
        const P t552 = shuffled<0, 2>(t547, t548);
        const P t553 = t551 + t552;
        const P t554 = joined(t538, t539);
        const P t555 = t553 + t554;
        io.out(7, 36, t555);
        const P t556 = c[1] * t549;
        const P t557 = c[2] * t550;
        const P t558 = t556 - t557;
        const P t559 = c[0] * t552;
        const P t560 = t558 - t559;
        const P t561 = t560 + t554;
        const P t562 = shuffled<1, 3>(t541, t542);
        const P t563 = c[5] * t562;
        const P t564 = shuffled<1, 3>(t544, t545);
        const P t565 = c[3] * t564;
        const P t566 = t563 + t565;
        const P t567 = shuffled<1, 3>(t547, t548);
        const P t568 = c[4] * t567;
        const P t569 = t566 + t568;
        const P t570 = t561 - t569;
        io.out(29, 14, t570);
        const P t571 = t561 + t569;
        io.out(18, 25, t571);
        const P t572 = c[2] * t549;
        const P t573 = t554 - t572;
        const P t574 = c[0] * t550;
        const P t575 = t573 - t574;
        const P t576 = c[1] * t552;
        const P t577 = t575 + t576;
        const P t578 = c[3] * t562;
        const P t579 = c[4] * t564;
        const P t580 = t578 - t579;
        const P t581 = c[5] * t567;
        const P t582 = t580 - t581;
        const P t583 = t577 - t582;
        io.out(28, 15, t583);
        const P t584 = t577 + t582;
        io.out(34, 9, t584);
        const P t585 = c[0] * t549;
        const P t586 = t554 - t585;
        const P t587 = c[1] * t550;
        const P t588 = t586 + t587;
        const P t589 = c[2] * t552;
        const P t590 = t588 - t589;
        const P t591 = c[4] * t562;
        const P t592 = c[5] * t564;
        const P t593 = t591 - t592;
        const P t594 = c[3] * t567;
        const P t595 = t593 + t594;
        const P t596 = t590 - t595;
        io.out(30, 13, t596);
        const P t597 = t590 + t595;
        io.out(26, 17, t597);
        // spectrum block of 43
        const V t598 = x0 + t241;
        io.out(0, t598);
    }
};

}  // namespace zulg
