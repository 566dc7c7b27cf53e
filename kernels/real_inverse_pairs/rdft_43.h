// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 43.
// Inverse DFT to 43 real points, Rader 3, 2, 7; two lanes to a register.
// 160 sums, 108 differences, 198 products of registers, which do the 969 steps of the graph, those with
// `scale` included; 79 shuffles, 28 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<43> {
    static constexpr int steps = 969;  // with `scale`
    static constexpr double inverseRoot = 0.15249857033260467;  // 1/sqrt(43), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.9009688679024191,  // c[1]: -cos 2 pi 3/7
        0.6234898018587335,  // c[2]: cos 2 pi 15/7
        0.2225209339563144,  // c[3]: -cos 2 pi 12/7
        0.9749279121818236,  // c[4]: -sin 2 pi 12/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.7818314824680298,  // c[6]: sin 2 pi 15/7
        0.5,  // c[7]: -cos 2 pi 1/3
        0.8660254037844386,  // c[8]: sin 2 pi 1/3
        0.3012377482182514,  // c[9]: P[1] of 43
        0.08222826754004824,  // c[10]: Q[1] of 43
        0.3115158140914036,  // c[11]: Q[2] of 43
        0.02153059463206762,  // c[12]: P[2] of 43
        0.23875651933592446,  // c[13]: -Q[3] of 43
        0.20124858610393936,  // c[14]: P[3] of 43
        0.23076057628931884,  // c[15]: P[4] of 43
        0.2103692595529628,  // c[16]: Q[4] of 43
        0.16498076041582113,  // c[17]: Q[5] of 43
        0.26511698856704335,  // c[18]: -P[5] of 43
        0.24532144471548137,  // c[19]: P[6] of 43
        0.19319176405051375,  // c[20]: -Q[6] of 43
        0.3083663744032671,  // c[21]: Q[8] of 43
        0.04915127741599876,  // c[22]: P[8] of 43
        0.10490468278634746,  // c[23]: Q[9] of 43
        0.29410997341765915,  // c[24]: -P[9] of 43
        0.3100587997761174,  // c[25]: Q[10] of 43
        0.03700283253527918,  // c[26]: P[10] of 43
        0.15718049159887415,  // c[27]: Q[11] of 43
        0.2698146808366376,  // c[28]: -P[11] of 43
        0.30868217300913287,  // c[29]: P[12] of 43
        0.04712732753509521,  // c[30]: Q[12] of 43
        0.049839531053216354,  // c[31]: P[13] of 43
        0.30825588409410104,  // c[32]: -Q[13] of 43
        0.15726931179327497,  // c[33]: P[15] of 43
        0.26976291906470395,  // c[34]: Q[15] of 43
        0.3042741226030731,  // c[35]: -P[16] of 43
        0.07016357494006686,  // c[36]: -Q[16] of 43
        0.3044528520057486,  // c[37]: -Q[17] of 43
        0.06938393070305333,  // c[38]: -P[17] of 43
        0.18645814945888683,  // c[39]: P[18] of 43
        0.25047759866823976,  // c[40]: -Q[18] of 43
        0.10982914663214519,  // c[41]: Q[19] of 43
        0.29230673527015266,  // c[42]: P[19] of 43
        0.008407870561774193,  // c[43]: P[20] of 43
        0.31214576185951465,  // c[44]: -Q[20] of 43
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
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x16 = io.pair(16);
        // doubled bins
        const P t0 = c[0] * x16;
        const P x8 = io.pair(8);
        const P t1 = P(c[0], -c[0]) * x8;
        // real block of 7, multiplier 3
        const P t2 = t0 + t1;
        const P t3 = t0 - t1;
        const P x21 = io.pair(21);
        // doubled bins
        const P t4 = c[0] * x21;
        const P x2 = io.pair(2);
        const P t5 = P(c[0], -c[0]) * x2;
        // real block of 7, multiplier 3
        const P t6 = t4 + t5;
        const P t7 = t4 - t5;
        const P x4 = io.pair(4);
        // doubled bins
        const P t8 = c[0] * x4;
        const P x11 = io.pair(11);
        const P t9 = c[0] * x11;
        // real block of 7, multiplier 3
        const P t10 = t8 + t9;
        const P t11 = t8 - t9;
        const P t12 = t2 + t6;
        const P t13 = t12 + t10;
        const P x1 = io.pair(1);
        // doubled bins
        const P t14 = c[0] * x1;
        // real block of 7, multiplier 3
        const P t15 = t13 + t14;
        const P t16 = c[1] * t2;
        const P t17 = t14 - t16;
        const P t18 = c[2] * t6;
        const P t19 = t17 + t18;
        const P t20 = c[3] * t10;
        const P t21 = t19 - t20;
        const P t22 = c[4] * t11;
        const P t23 = c[5] * t3;
        const P t24 = t22 - t23;
        const P t25 = c[6] * t7;
        const P t26 = t24 - t25;
        const P t27 = c[2] * t2;
        const P t28 = c[3] * t6;
        const P t29 = t27 - t28;
        const P t30 = c[1] * t10;
        const P t31 = t29 - t30;
        const P t32 = t31 + t14;
        const P t33 = c[6] * t3;
        const P t34 = c[4] * t7;
        const P t35 = t33 - t34;
        const P t36 = c[5] * t11;
        const P t37 = t35 - t36;
        const P t38 = c[3] * t2;
        const P t39 = t14 - t38;
        const P t40 = c[1] * t6;
        const P t41 = t39 - t40;
        const P t42 = c[2] * t10;
        const P t43 = t41 + t42;
        const P t44 = c[4] * t3;
        const P t45 = c[5] * t7;
        const P t46 = t44 + t45;
        const P t47 = c[6] * t11;
        const P t48 = t46 + t47;
        const P x10 = io.pair(10);
        // doubled bins
        const P t49 = c[0] * x10;
        const P x5 = io.pair(5);
        const P t50 = P(c[0], -c[0]) * x5;
        // real block of 7, multiplier 3
        const P t51 = t49 + t50;
        const P t52 = t49 - t50;
        const P x3 = io.pair(3);
        // doubled bins
        const P t53 = c[0] * x3;
        const P x12 = io.pair(12);
        const P t54 = c[0] * x12;
        // real block of 7, multiplier 3
        const P t55 = t53 + t54;
        const P t56 = shuffled<0, 3>(t53, t54);
        const P t57 = shuffled<0, 3>(t54, t53);
        const P t58 = t56 - t57;
        const P x19 = io.pair(19);
        // doubled bins
        const P t59 = c[0] * x19;
        const P x20 = io.pair(20);
        const P t60 = c[0] * x20;
        // real block of 7, multiplier 3
        const P t61 = t59 + t60;
        const P t62 = shuffled<0, 3>(t59, t60);
        const P t63 = shuffled<0, 3>(t60, t59);
        const P t64 = t62 - t63;
        const P t65 = flipped<0, 1>(t55);
        const P t66 = t51 + t65;
        const P t67 = flipped<0, 1>(t61);
        const P t68 = t66 + t67;
        const P x6 = io.pair(6);
        // doubled bins
        const P t69 = c[0] * x6;
        // real block of 7, multiplier 3
        const P t70 = t68 + t69;
        const P t71 = c[1] * t51;
        const P t72 = t69 - t71;
        const P t73 = P(c[2], -c[2]) * t55;
        const P t74 = t72 + t73;
        const P t75 = P(-c[3], c[3]) * t61;
        const P t76 = t74 + t75;
        const P t77 = c[4] * t64;
        const P t78 = c[5] * t52;
        const P t79 = t77 - t78;
        const P t80 = c[6] * t58;
        const P t81 = t79 - t80;
        const P t82 = c[2] * t51;
        const P t83 = P(-c[3], c[3]) * t55;
        const P t84 = t82 + t83;
        const P t85 = P(-c[1], c[1]) * t61;
        const P t86 = t84 + t85;
        const P t87 = t86 + t69;
        const P t88 = c[6] * t52;
        const P t89 = c[4] * t58;
        const P t90 = t88 - t89;
        const P t91 = c[5] * t64;
        const P t92 = t90 - t91;
        const P t93 = c[3] * t51;
        const P t94 = t69 - t93;
        const P t95 = P(-c[1], c[1]) * t55;
        const P t96 = t94 + t95;
        const P t97 = P(c[2], -c[2]) * t61;
        const P t98 = t96 + t97;
        const P t99 = c[4] * t52;
        const P t100 = c[5] * t58;
        const P t101 = t99 + t100;
        const P t102 = c[6] * t64;
        const P t103 = t101 + t102;
        const P x17 = io.pair(17);
        // doubled bins
        const P t104 = c[0] * x17;
        const P x13 = io.pair(13);
        const P t105 = c[0] * x13;
        // real block of 7, multiplier 3
        const P t106 = t104 + t105;
        const P t107 = t104 - t105;
        const P x14 = io.pair(14);
        // doubled bins
        const P t108 = c[0] * x14;
        const P x18 = io.pair(18);
        const P t109 = P(c[0], -c[0]) * x18;
        // real block of 7, multiplier 3
        const P t110 = t108 + t109;
        const P t111 = flipped<0, 1>(t109);
        const P t112 = flipped<1, 0>(t108);
        const P t113 = t111 + t112;
        const P x15 = io.pair(15);
        // doubled bins
        const P t114 = c[0] * x15;
        const P x9 = io.pair(9);
        const P t115 = c[0] * x9;
        // real block of 7, multiplier 3
        const P t116 = t114 + t115;
        const P t117 = t114 - t115;
        const P t118 = t106 + t110;
        const P t119 = t118 + t116;
        const P x7 = io.pair(7);
        // doubled bins
        const P t120 = P(c[0], -c[0]) * x7;
        // real block of 7, multiplier 3
        const P t121 = t119 + t120;
        const P t122 = flipped<0, 1>(t120);
        const P t123 = P(-c[1], c[1]) * t106;
        const P t124 = t122 + t123;
        const P t125 = c[2] * t110;
        const P t126 = flipped<0, 1>(t124);
        const P t127 = t125 + t126;
        const P t128 = c[3] * t116;
        const P t129 = t127 - t128;
        const P t130 = P(-c[5], c[5]) * t107;
        const P t131 = c[6] * t113;
        const P t132 = shuffled<0, 3>(t130, t131);
        const P t133 = c[4] * t117;
        const P t134 = t132 + t133;
        const P t135 = shuffled<0, 3>(t131, t130);
        const P t136 = t134 - t135;
        const P t137 = c[2] * t106;
        const P t138 = c[3] * t110;
        const P t139 = t137 - t138;
        const P t140 = c[1] * t116;
        const P t141 = t139 - t140;
        const P t142 = t141 + t120;
        const P t143 = c[6] * t107;
        const P t144 = P(-c[4], c[4]) * t113;
        const P t145 = t143 + t144;
        const P t146 = c[5] * t117;
        const P t147 = t145 - t146;
        const P t148 = P(-c[3], c[3]) * t106;
        const P t149 = t122 + t148;
        const P t150 = P(-c[1], c[1]) * t110;
        const P t151 = t149 + t150;
        const P t152 = c[2] * t116;
        const P t153 = flipped<0, 1>(t151);
        const P t154 = t152 + t153;
        const P t155 = c[5] * t113;
        const P t156 = P(c[4], -c[4]) * t107;
        const P t157 = t155 + t156;
        const P t158 = P(c[6], -c[6]) * t117;
        const P t159 = t157 + t158;
        // real block of 3
        const P t160 = t70 + t121;
        const P t161 = t70 - t121;
        const P t162 = t160 + t15;
        const P t163 = c[7] * t160;
        const P t164 = t15 - t163;
        // complex block of 3
        const P t165 = t76 + t129;
        const P t166 = t81 + t136;
        const P t167 = t76 - t129;
        const P t168 = t81 - t136;
        const P t169 = t165 + t21;
        const P t170 = t166 + t26;
        const P t171 = c[7] * t165;
        const P t172 = t21 - t171;
        const P t173 = c[7] * t166;
        const P t174 = t26 - t173;
        const P t175 = c[8] * t168;
        const P t176 = t172 + t175;
        const P t177 = c[8] * t167;
        const P t178 = t174 - t177;
        const P t179 = t172 - t175;
        const P t180 = t174 + t177;
        // complex block of 3
        const P t181 = t87 + t142;
        const P t182 = t92 + t147;
        const P t183 = t87 - t142;
        const P t184 = t92 - t147;
        const P t185 = t181 + t32;
        const P t186 = t182 + t37;
        const P t187 = c[7] * t181;
        const P t188 = t32 - t187;
        const P t189 = c[7] * t182;
        const P t190 = t37 - t189;
        const P t191 = c[8] * t184;
        const P t192 = t188 + t191;
        const P t193 = c[8] * t183;
        const P t194 = t190 - t193;
        const P t195 = t188 - t191;
        const P t196 = t190 + t193;
        // complex block of 3
        const P t197 = t98 + t154;
        const P t198 = flipped<0, 1>(t103);
        const P t199 = t159 + t198;
        const P t200 = t98 - t154;
        const P t201 = t159 - t198;
        const P t202 = t197 + t43;
        const P t203 = flipped<0, 1>(t48);
        const P t204 = t199 + t203;
        const P t205 = c[7] * t197;
        const P t206 = t43 - t205;
        const P t207 = c[7] * t199;
        const P t208 = t207 - t203;
        const P t209 = P(c[8], -c[8]) * t201;
        const P t210 = t206 + t209;
        const P t211 = P(-c[8], c[8]) * t200;
        const P t212 = t208 + t211;
        const P t213 = t206 - t209;
        const P t214 = shuffled<0, 3>(t208, t211);
        const P t215 = shuffled<0, 3>(t211, t208);
        const P t216 = t214 - t215;
        const V x0r = io.re(0);
        const V t217 = part<0>(t162);
        // spectrum block of 43
        const V t218 = c[45] * t217;
        const V t219 = x0r - t218;
        const P t220 = shuffled<1, 3>(t178, t176);
        const P t221 = c[9] * t220;
        const P t222 = shuffled<1, 0>(t220);
        const P t223 = P(c[10], -c[10]) * t222;
        const P t224 = t221 + t223;
        const P t225 = shuffled<0, 2>(t196, t195);
        const P t226 = c[11] * t225;
        const P t227 = shuffled<1, 0>(t225);
        const P t228 = P(c[12], -c[12]) * t227;
        const P t229 = t226 + t228;
        const P t230 = shuffled<1, 3>(t202, t204);
        const P t231 = P(-c[13], c[13]) * t230;
        const P t232 = shuffled<1, 0>(t230);
        const P t233 = c[14] * t232;
        const P t234 = t231 + t233;
        const P t235 = shuffled<0, 2>(t213, t216);
        const P t236 = c[15] * t235;
        const P t237 = shuffled<1, 0>(t235);
        const P t238 = P(-c[16], c[16]) * t237;
        const P t239 = t236 + t238;
        const P t240 = shuffled<1, 3>(t192, t194);
        const P t241 = c[17] * t240;
        const P t242 = shuffled<1, 0>(t240);
        const P t243 = P(c[18], -c[18]) * t242;
        const P t244 = t241 + t243;
        const P t245 = shuffled<0, 2>(t169, t170);
        const P t246 = c[19] * t245;
        const P t247 = shuffled<1, 0>(t245);
        const P t248 = P(c[20], -c[20]) * t247;
        const P t249 = t246 + t248;
        const P t250 = shuffled<0, 2>(t180, t179);
        const P t251 = c[21] * t250;
        const P t252 = shuffled<1, 0>(t250);
        const P t253 = P(c[22], -c[22]) * t252;
        const P t254 = t251 + t253;
        const P t255 = shuffled<1, 3>(t185, t186);
        const P t256 = c[23] * t255;
        const P t257 = shuffled<1, 0>(t255);
        const P t258 = P(-c[24], c[24]) * t257;
        const P t259 = t256 + t258;
        const P t260 = shuffled<0, 2>(t212, t210);
        const P t261 = c[25] * t260;
        const P t262 = shuffled<1, 0>(t260);
        const P t263 = P(c[26], -c[26]) * t262;
        const P t264 = t261 + t263;
        const P t265 = shuffled<1, 3>(t210, t212);
        const P t266 = c[27] * t265;
        const P t267 = shuffled<1, 0>(t265);
        const P t268 = P(-c[28], c[28]) * t267;
        const P t269 = t266 + t268;
        const P t270 = shuffled<0, 2>(t185, t186);
        const P t271 = c[29] * t270;
        const P t272 = shuffled<1, 0>(t270);
        const P t273 = P(-c[30], c[30]) * t272;
        const P t274 = t271 + t273;
        const P t275 = shuffled<1, 3>(t180, t179);
        const P t276 = c[31] * t275;
        const P t277 = shuffled<1, 0>(t275);
        const P t278 = P(c[32], -c[32]) * t277;
        const P t279 = t276 + t278;
        // real block of 3
        const P t280 = c[8] * t161;
        const P t281 = shuffled<0, 3>(t164, t280);
        // spectrum block of 43
        const P t282 = P(c[46], c[47]) * t281;
        const P t283 = shuffled<0, 3>(t280, t164);
        const P t284 = P(c[48], -c[49]) * t283;
        const P t285 = t282 + t284;
        const P t286 = shuffled<1, 3>(t170, t169);
        const P t287 = c[33] * t286;
        const P t288 = shuffled<1, 0>(t286);
        const P t289 = P(c[34], -c[34]) * t288;
        const P t290 = t287 + t289;
        const P t291 = shuffled<0, 2>(t192, t194);
        const P t292 = c[35] * t291;
        const P t293 = shuffled<1, 0>(t291);
        const P t294 = P(c[36], -c[36]) * t293;
        const P t295 = t292 + t294;
        const P t296 = shuffled<1, 3>(t213, t216);
        const P t297 = c[37] * t296;
        const P t298 = shuffled<1, 0>(t296);
        const P t299 = P(c[38], -c[38]) * t298;
        const P t300 = t297 + t299;
        const P t301 = shuffled<0, 2>(t202, t204);
        const P t302 = c[39] * t301;
        const P t303 = shuffled<1, 0>(t301);
        const P t304 = P(-c[40], c[40]) * t303;
        const P t305 = t302 + t304;
        const P t306 = shuffled<1, 3>(t195, t196);
        const P t307 = c[41] * t306;
        const P t308 = shuffled<1, 0>(t306);
        const P t309 = P(-c[42], c[42]) * t308;
        const P t310 = t307 + t309;
        const P t311 = shuffled<0, 2>(t176, t178);
        const P t312 = c[43] * t311;
        const P t313 = shuffled<1, 0>(t311);
        const P t314 = P(c[44], -c[44]) * t313;
        const P t315 = t312 + t314;
        const P t316 = flipped<1, 0>(t300);
        // complex block of 3, multiplier 2
        const P t317 = t316 + t269;
        const P t318 = flipped<0, 1>(t269);
        const P t319 = t300 + t318;
        const P t320 = t317 + t234;
        const P t321 = c[7] * t317;
        const P t322 = t234 - t321;
        const P t323 = c[8] * t319;
        const P t324 = shuffled<1, 0>(t323);
        const P t325 = t322 - t324;
        const P t326 = t322 + t324;
        const P t327 = flipped<0, 1>(t254);
        // complex block of 3, multiplier 2
        const P t328 = t315 + t327;
        const P t329 = t315 - t327;
        const P t330 = t328 + t249;
        const P t331 = c[7] * t328;
        const P t332 = t249 - t331;
        const P t333 = P(c[8], -c[8]) * t329;
        const P t334 = shuffled<1, 0>(t333);
        const P t335 = t332 + t334;
        const P t336 = t332 - t334;
        // complex block of 3, multiplier 2
        const P t337 = t310 + t244;
        const P t338 = shuffled<0, 3>(t310, t244);
        const P t339 = shuffled<0, 3>(t244, t310);
        const P t340 = t338 - t339;
        const P t341 = t337 + t259;
        const P t342 = P(-c[7], c[7]) * t337;
        const P t343 = flipped<0, 1>(t259);
        const P t344 = t342 + t343;
        const P t345 = P(c[8], -c[8]) * t340;
        const P t346 = shuffled<1, 0>(t345);
        const P t347 = t344 + t346;
        const P t348 = t344 - t346;
        const P t349 = flipped<1, 0>(t295);
        // complex block of 3, multiplier 2
        const P t350 = t349 + t229;
        const P t351 = t229 - t349;
        const P t352 = flipped<0, 1>(t350);
        const P t353 = t274 + t352;
        const P t354 = P(-c[7], c[7]) * t350;
        const P t355 = t354 + t274;
        const P t356 = c[8] * t351;
        const P t357 = shuffled<1, 0>(t356);
        const P t358 = t355 - t357;
        const P t359 = t355 + t357;
        // complex block of 3, multiplier 2
        const P t360 = t224 - t279;
        const P t361 = t279 + t224;
        const P t362 = t360 + t290;
        const P t363 = c[7] * t360;
        const P t364 = t290 - t363;
        const P t365 = P(-c[8], c[8]) * t361;
        const P t366 = shuffled<1, 0>(t365);
        const P t367 = t364 + t366;
        const P t368 = t364 - t366;
        const P t369 = flipped<0, 1>(t264);
        // complex block of 3, multiplier 2
        const P t370 = t239 + t369;
        const P t371 = flipped<1, 0>(t239);
        const P t372 = t264 + t371;
        const P t373 = flipped<0, 1>(t305);
        const P t374 = t370 + t373;
        const P t375 = P(-c[7], c[7]) * t370;
        const P t376 = t305 + t375;
        const P t377 = c[8] * t372;
        const P t378 = shuffled<0, 2>(t376, t377);
        const P t379 = shuffled<1, 3>(t377, t376);
        const P t380 = flipped<1, 0>(t379);
        const P t381 = t378 - t380;
        const P t382 = t380 + t378;
        const V t383 = part<1>(t162);
        // spectrum block of 43
        const V t384 = -c[50] * t383;
        const P t385 = joined(t219, t384);
        // spectrum block of 3, multiplier 2
        const P t386 = t285 + t385;
        const P t387 = flipped<0, 1>(t385);
        const P t388 = P(-c[7], c[7]) * t285;
        const P t389 = t387 + t388;
        const P t390 = P(c[51], c[52]) * t281;
        const P t391 = P(-c[53], c[54]) * t283;
        const P t392 = t390 + t391;
        const P t393 = flipped<1, 0>(t392);
        const P t394 = t389 + t393;
        const P t395 = flipped<0, 1>(t389);
        const P t396 = t392 + t395;
        const P t397 = shuffled<0, 2>(t386, t396);
        const P t398 = shuffled<1, 3>(t386, t396);
        // spectrum block of 2
        const P t399 = t397 + t398;
        const P t400 = t397 - t398;
        const P t401 = shuffled<1, 3>(t330, t336);
        const P t402 = shuffled<1, 3>(t362, t368);
        // complex block of 2
        const P t403 = t401 - t402;
        const P t404 = shuffled<0, 2>(t330, t336);
        const P t405 = shuffled<0, 2>(t362, t368);
        const P t406 = t404 + t405;
        const P t407 = t401 + t402;
        const P t408 = t404 - t405;
        const P t409 = shuffled<1, 3>(t353, t359);
        const P t410 = shuffled<1, 3>(t341, t348);
        const P t411 = flipped<0, 1>(t410);
        // complex block of 2
        const P t412 = t409 + t411;
        const P t413 = shuffled<0, 2>(t353, t359);
        const P t414 = shuffled<0, 2>(t341, t348);
        const P t415 = t413 + t414;
        const P t416 = t409 - t411;
        const P t417 = t413 - t414;
        const P t418 = shuffled<1, 3>(t374, t382);
        const P t419 = shuffled<1, 3>(t320, t326);
        const P t420 = flipped<1, 0>(t419);
        // complex block of 2
        const P t421 = t418 + t420;
        const P t422 = shuffled<0, 2>(t374, t382);
        const P t423 = shuffled<0, 2>(t320, t326);
        const P t424 = t422 + t423;
        const P t425 = flipped<0, 1>(t418);
        const P t426 = t419 + t425;
        const P t427 = t422 - t423;
        // spectrum block of 7, multiplier 6
        const P t428 = t406 + t415;
        const P t429 = t428 + t424;
        const P t430 = t429 + t399;
        io.out(1, 6, t430);
        const P t431 = c[2] * t406;
        const P t432 = c[3] * t415;
        const P t433 = t431 - t432;
        const P t434 = c[1] * t424;
        const P t435 = t433 - t434;
        const P t436 = t435 + t399;
        const P t437 = c[6] * t403;
        const P t438 = c[4] * t412;
        const P t439 = t437 + t438;
        const P t440 = P(c[5], -c[5]) * t421;
        const P t441 = t439 + t440;
        const P t442 = t436 - t441;
        io.out(41, 31, t442);
        const P t443 = t436 + t441;
        io.out(21, 40, t443);
        const P t444 = c[3] * t406;
        const P t445 = t399 - t444;
        const P t446 = c[1] * t415;
        const P t447 = t445 - t446;
        const P t448 = c[2] * t424;
        const P t449 = t447 + t448;
        const P t450 = c[4] * t403;
        const P t451 = c[5] * t412;
        const P t452 = t450 - t451;
        const P t453 = P(-c[6], c[6]) * t421;
        const P t454 = t452 + t453;
        const P t455 = t449 - t454;
        io.out(4, 24, t455);
        const P t456 = t449 + t454;
        io.out(11, 23, t456);
        const P t457 = c[1] * t406;
        const P t458 = t399 - t457;
        const P t459 = c[2] * t415;
        const P t460 = t458 + t459;
        const P t461 = c[3] * t424;
        const P t462 = t460 - t461;
        const P t463 = c[5] * t403;
        const P t464 = c[6] * t412;
        const P t465 = t463 - t464;
        const P t466 = P(c[4], -c[4]) * t421;
        const P t467 = t465 + t466;
        const P t468 = t462 - t467;
        io.out(35, 38, t468);
        const P t469 = t462 + t467;
        io.out(16, 10, t469);
        // spectrum block of 7, multiplier 6
        const P t470 = t408 + t417;
        const P t471 = t470 + t427;
        const P t472 = t471 + t400;
        io.out(42, 37, t472);
        const P t473 = c[2] * t408;
        const P t474 = c[3] * t417;
        const P t475 = t473 - t474;
        const P t476 = c[1] * t427;
        const P t477 = t475 - t476;
        const P t478 = t477 + t400;
        const P t479 = c[6] * t407;
        const P t480 = c[4] * t416;
        const P t481 = t479 + t480;
        const P t482 = c[5] * t426;
        const P t483 = t481 + t482;
        const P t484 = t478 - t483;
        io.out(2, 12, t484);
        const P t485 = t478 + t483;
        io.out(22, 3, t485);
        const P t486 = c[3] * t408;
        const P t487 = t400 - t486;
        const P t488 = c[1] * t417;
        const P t489 = t487 - t488;
        const P t490 = c[2] * t427;
        const P t491 = t489 + t490;
        const P t492 = c[4] * t407;
        const P t493 = c[5] * t416;
        const P t494 = t492 - t493;
        const P t495 = c[6] * t426;
        const P t496 = t494 - t495;
        const P t497 = t491 - t496;
        io.out(39, 19, t497);
        const P t498 = t491 + t496;
        io.out(32, 20, t498);
        const P t499 = c[1] * t408;
        const P t500 = t400 - t499;
        const P t501 = c[2] * t417;
        const P t502 = t500 + t501;
        const P t503 = c[3] * t427;
        const P t504 = t502 - t503;
        const P t505 = c[5] * t407;
        const P t506 = c[6] * t416;
        const P t507 = t505 - t506;
        const P t508 = c[4] * t426;
        const P t509 = t507 + t508;
        const P t510 = t504 - t509;
        io.out(8, 5, t510);
        const P t511 = t504 + t509;
        io.out(27, 33, t511);
        const V t512 = part<0>(t394);
        const V t513 = part<1>(t394);
        // spectrum block of 2
        const V t514 = t512 - t513;
        const V t515 = t512 + t513;
        const P t516 = flipped<0, 1>(t367);
        // complex block of 2
        const P t517 = t335 + t516;
        const P t518 = t335 - t516;
        const P t519 = flipped<0, 1>(t347);
        // complex block of 2
        const P t520 = t358 + t519;
        const P t521 = t358 - t519;
        const P t522 = flipped<0, 1>(t325);
        // complex block of 2
        const P t523 = t381 + t522;
        const P t524 = t381 - t522;
        const P t525 = shuffled<0, 2>(t517, t518);
        const P t526 = shuffled<0, 2>(t520, t521);
        // spectrum block of 7, multiplier 6
        const P t527 = t525 + t526;
        const P t528 = shuffled<0, 2>(t523, t524);
        const P t529 = t527 + t528;
        const P t530 = joined(t514, t515);
        const P t531 = t529 + t530;
        io.out(36, 7, t531);
        const P t532 = c[2] * t525;
        const P t533 = c[3] * t526;
        const P t534 = t532 - t533;
        const P t535 = c[1] * t528;
        const P t536 = t534 - t535;
        const P t537 = t536 + t530;
        const P t538 = shuffled<1, 3>(t517, t518);
        const P t539 = c[6] * t538;
        const P t540 = shuffled<1, 3>(t520, t521);
        const P t541 = c[4] * t540;
        const P t542 = t539 + t541;
        const P t543 = shuffled<1, 3>(t523, t524);
        const P t544 = c[5] * t543;
        const P t545 = t542 + t544;
        const P t546 = t537 - t545;
        io.out(14, 29, t546);
        const P t547 = t537 + t545;
        io.out(25, 18, t547);
        const P t548 = c[3] * t525;
        const P t549 = t530 - t548;
        const P t550 = c[1] * t526;
        const P t551 = t549 - t550;
        const P t552 = c[2] * t528;
        const P t553 = t551 + t552;
        const P t554 = c[4] * t538;
        const P t555 = c[5] * t540;
        const P t556 = t554 - t555;
        const P t557 = c[6] * t543;
        const P t558 = t556 - t557;
        const P t559 = t553 - t558;
        io.out(15, 28, t559);
        const P t560 = t553 + t558;
        io.out(9, 34, t560);
        const P t561 = c[1] * t525;
        const P t562 = t530 - t561;
        const P t563 = c[2] * t526;
        const P t564 = t562 + t563;
        const P t565 = c[3] * t528;
        const P t566 = t564 - t565;
        const P t567 = c[5] * t538;
        const P t568 = c[6] * t540;
        const P t569 = t567 - t568;
        const P t570 = c[4] * t543;
        const P t571 = t569 + t570;
        const P t572 = t566 - t571;
        io.out(13, 30, t572);
        const P t573 = t566 + t571;
        io.out(17, 26, t573);
        // spectrum block of 43
        const V t574 = x0r + t217;
        io.out(0, t574);
    }
};

}  // namespace zulg
