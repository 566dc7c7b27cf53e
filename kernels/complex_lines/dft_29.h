// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 29.
// Complex DFT of 29 points, Rader block; two lines of a stage to a register.
// 107 sums, 90 differences, 118 products of registers, which do the 1110 steps of the graph, those with
// `scale` included; 71 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<29> {
    static constexpr int steps = 1110;  // with `scale`
    static constexpr double inverseRoot = 0.18569533817705186;  // 1/sqrt(29), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 20/7
        0.2225209339563144,  // c[1]: -cos 2 pi 16/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: -sin 2 pi 20/7
        0.9749279121818236,  // c[4]: sin 2 pi 16/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.07274108340629196,  // c[6]: -P[7] of 29
        0.3777140697119294,  // c[7]: -Q[7] of 29
        0.21129297752958617,  // c[8]: P[2] of 29
        0.27532091814028564,  // c[9]: Q[5] of 29
        0.32142566997698113,  // c[10]: Q[2] of 29
        0.26862162181749166,  // c[11]: P[5] of 29
        0.035220206650882144,  // c[12]: P[9] of 29
        0.38303879792644835,  // c[13]: Q[9] of 29
        0.0870482765930398,  // c[14]: P[12] of 29
        0.37467556794599116,  // c[15]: Q[12] of 29
        0.3290592701972177,  // c[16]: P[4] of 29
        0.13741940099767344,  // c[17]: P[6] of 29
        0.19919633623825483,  // c[18]: Q[4] of 29
        0.35927022128602587,  // c[19]: Q[6] of 29
        0.37569917287106036,  // c[20]: P[10] of 29
        0.3205115713047231,  // c[21]: -P[8] of 29
        0.0825185747421179,  // c[22]: -Q[10] of 29
        0.21267702351981235,  // c[23]: Q[8] of 29
        0.28787780453569184,  // c[24]: Q[11] of 29
        0.2670821358430261,  // c[25]: Q[1] of 29
        0.25511870438911255,  // c[26]: -P[11] of 29
        0.2768145884649087,  // c[27]: P[1] of 29
        0.2491897008367598,  // c[28]: -Q[3] of 29
        0.3714454456857387,  // c[29]: -Q[13] of 29
        0.29302504444220384,  // c[30]: P[3] of 29
        0.0999373031094614,  // c[31]: -P[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x1_16 = io.pairs(1, 16);
        const Q x28_13 = io.pairs(28, 13);
        // real block of 2
        const Q t0 = x1_16 + x28_13;
        const Q t1 = x1_16 - x28_13;
        const Q x20_8 = io.pairs(20, 8);
        const Q x9_21 = io.pairs(9, 21);
        // real block of 2
        const Q t2 = x20_8 + x9_21;
        const Q t3 = x20_8 - x9_21;
        const Q x12_18 = io.pairs(12, 18);
        const Q x17_11 = io.pairs(17, 11);
        // real block of 2
        const Q t4 = x12_18 + x17_11;
        const Q t5 = x12_18 - x17_11;
        // real block of 2
        const Q t6 = t0 + t4;
        const Q t7 = t0 - t4;
        const P t8 = part<0>(t2);
        const P t9 = part<1>(t2);
        // real block of 2
        const P t10 = t8 + t9;
        const P t11 = t8 - t9;
        const P t12 = part<1>(t1);
        const P t13 = part<0>(t3);
        // complex block of 7, multiplier 4
        const P t14 = t12 + t13;
        const P t15 = part<1>(t5);
        const P t16 = part<1>(t3);
        const P t17 = t15 + t16;
        const Q x27_26 = io.pairs(27, 26);
        const Q x2_3 = io.pairs(2, 3);
        // real block of 2
        const Q t18 = x27_26 + x2_3;
        const Q t19 = x27_26 - x2_3;
        const Q x25_23 = io.pairs(25, 23);
        const Q x4_6 = io.pairs(4, 6);
        // real block of 2
        const Q t20 = x25_23 + x4_6;
        const Q t21 = x25_23 - x4_6;
        const Q x24_7 = io.pairs(24, 7);
        const Q x5_22 = io.pairs(5, 22);
        // real block of 2
        const Q t22 = x24_7 + x5_22;
        const Q t23 = x24_7 - x5_22;
        const Q x10_15 = io.pairs(10, 15);
        const Q x19_14 = io.pairs(19, 14);
        // real block of 2
        const Q t24 = x10_15 + x19_14;
        const Q t25 = x10_15 - x19_14;
        // real block of 2
        const Q t26 = t22 + t18;
        const Q t27 = t22 - t18;
        // real block of 2
        const Q t28 = t20 + t24;
        const Q t29 = t20 - t24;
        const P t30 = part<1>(t21);
        const P t31 = part<0>(t23);
        // complex block of 7, multiplier 4
        const P t32 = t30 + t31;
        const P t33 = part<1>(t25);
        const P t34 = part<0>(t19);
        const P t35 = t33 + t34;
        const P t36 = t12 - t13;
        const P t37 = t15 - t16;
        const P t38 = t30 - t31;
        const P t39 = t33 - t34;
        const P t40 = part<0>(t21);
        const P t41 = part<1>(t23);
        const P t42 = t40 + t41;
        const P t43 = part<0>(t25);
        const P t44 = part<1>(t19);
        const P t45 = t43 + t44;
        const P t46 = t40 - t41;
        const P t47 = t43 - t44;
        const P t48 = t14 + t32;
        const P t49 = t17 + t35;
        const P t50 = c[0] * t14;
        const P t51 = c[1] * t32;
        const P t52 = t50 - t51;
        const P t53 = c[0] * t17;
        const P t54 = c[1] * t35;
        const P t55 = t53 - t54;
        const P t56 = part<0>(t1);
        const P t57 = c[2] * t14;
        const P t58 = t56 - t57;
        const P t59 = part<0>(t5);
        const P t60 = c[2] * t17;
        const P t61 = t59 - t60;
        const Q t62 = shuffled<2, 3, 6, 7>(t6, t7);
        const Q t63 = joined(t10, t11);
        // real block of 7, multiplier 4
        const Q t64 = t62 + t63;
        const Q t65 = t62 - t63;
        const Q t66 = shuffled<2, 3, 6, 7>(t28, t29);
        const Q t67 = shuffled<0, 1, 4, 5>(t26, t27);
        const Q t68 = t66 + t67;
        const Q t69 = t66 - t67;
        const Q t70 = shuffled<0, 1, 4, 5>(t28, t29);
        const Q t71 = shuffled<2, 3, 6, 7>(t26, t27);
        const Q t72 = t70 + t71;
        const Q t73 = t70 - t71;
        // complex block of 7, multiplier 4
        const P t74 = t48 + t42;
        const P t75 = t74 + t56;
        const P t76 = t49 + t45;
        const P t77 = t76 + t59;
        const P t78 = c[2] * t42;
        const P t79 = t52 - t78;
        const P t80 = t79 + t56;
        const P t81 = c[2] * t45;
        const P t82 = t55 - t81;
        const P t83 = t82 + t59;
        const P t84 = c[3] * t36;
        const P t85 = c[4] * t38;
        const P t86 = t84 - t85;
        const P t87 = c[5] * t46;
        const P t88 = t86 - t87;
        const P t89 = c[3] * t37;
        const P t90 = c[4] * t39;
        const P t91 = t89 - t90;
        const P t92 = c[5] * t47;
        const P t93 = t91 - t92;
        const P t94 = c[0] * t32;
        const P t95 = t58 + t94;
        const P t96 = c[1] * t42;
        const P t97 = t95 - t96;
        const P t98 = c[0] * t35;
        const P t99 = t61 + t98;
        const P t100 = c[1] * t45;
        const P t101 = t99 - t100;
        const P t102 = c[5] * t36;
        const P t103 = c[3] * t38;
        const P t104 = t102 + t103;
        const P t105 = c[4] * t46;
        const P t106 = t104 - t105;
        const P t107 = c[5] * t37;
        const P t108 = c[3] * t39;
        const P t109 = t107 + t108;
        const P t110 = c[4] * t47;
        const P t111 = t109 - t110;
        const P t112 = t80 + t93;
        const P t113 = t83 - t88;
        const P t114 = t97 + t111;
        const P t115 = t101 - t106;
        const P t116 = t80 - t93;
        const P t117 = t83 + t88;
        const P t118 = t97 - t111;
        const P t119 = t101 + t106;
        const P t120 = c[1] * t14;
        const P t121 = t56 - t120;
        const P t122 = c[2] * t32;
        const P t123 = t121 - t122;
        const P t124 = c[4] * t37;
        const P t125 = c[5] * t39;
        const P t126 = t124 + t125;
        const P t127 = c[3] * t47;
        const P t128 = t126 + t127;
        const P t129 = c[0] * t42;
        const P t130 = t123 + t129;
        const P t131 = t130 + t128;
        const P t132 = t130 - t128;
        const P t133 = c[1] * t17;
        const P t134 = t59 - t133;
        const P t135 = c[2] * t35;
        const P t136 = t134 - t135;
        const P t137 = c[4] * t36;
        const P t138 = c[5] * t38;
        const P t139 = t137 + t138;
        const P t140 = c[3] * t46;
        const P t141 = t139 + t140;
        const P t142 = c[0] * t45;
        const P t143 = t136 + t142;
        const P t144 = t143 - t141;
        const P t145 = t143 + t141;
        // real block of 7, multiplier 4
        const Q t146 = t64 + t68;
        const Q t147 = t146 + t72;
        const Q t148 = shuffled<0, 1, 4, 5>(t6, t7);
        const Q t149 = t147 + t148;
        const Q t150 = c[2] * t64;
        const Q t151 = t148 - t150;
        const Q t152 = c[0] * t68;
        const Q t153 = t151 + t152;
        const Q t154 = c[0] * t64;
        const Q t155 = c[1] * t68;
        const Q t156 = t154 - t155;
        const Q t157 = c[2] * t72;
        const Q t158 = t156 - t157;
        const Q t159 = c[1] * t72;
        const Q t160 = t153 - t159;
        const Q t161 = t158 + t148;
        const Q t162 = c[5] * t65;
        const Q t163 = c[3] * t69;
        const Q t164 = t162 + t163;
        const Q t165 = c[4] * t69;
        const Q t166 = c[5] * t73;
        const Q t167 = t165 + t166;
        const Q t168 = c[4] * t73;
        const Q t169 = t164 - t168;
        const Q t170 = c[3] * t65;
        const Q t171 = t167 - t170;
        const Q t172 = c[1] * t64;
        const Q t173 = t148 - t172;
        const Q t174 = c[2] * t68;
        const Q t175 = t173 - t174;
        const Q t176 = c[0] * t72;
        const Q t177 = t175 + t176;
        const Q t178 = c[4] * t65;
        const Q t179 = c[5] * t69;
        const Q t180 = t178 + t179;
        const Q t181 = c[3] * t73;
        const Q t182 = t180 + t181;
        const P x0 = io.pair(0);
        const P t183 = part<0>(t149);
        // complex block of 29
        const P t184 = x0 + t183;
        io.pair(0, t184);
        const P t185 = c[32] * t183;
        const P t186 = x0 - t185;
        const P t187 = part<1>(t149);
        const P t188 = c[33] * t187;
        // spectrum block of 2
        const P t189 = t186 + t188;
        const P t190 = t186 - t188;
        const Q t191 = joined(t77, t77);
        const Q t192 = shuffled<1, 0, 3, 2>(t191);
        // complex block of 29
        const Q t193 = Q(c[6], -c[6], c[7], c[7]) * t192;
        const Q t194 = joined(t75, t75);
        const Q t195 = shuffled<1, 0, 3, 2>(t194);
        const Q t196 = Q(-c[7], c[7], c[6], c[6]) * t195;
        const Q t197 = t193 + t196;
        const Q t198 = joined(t189, t190);
        const Q t199 = flipped<0, 0, 1, 0>(t197);
        // spectrum block of 2
        const Q t200 = t198 + t199;
        const Q t201 = t198 - t199;
        const P t202 = part<1>(t177);
        const P t203 = shuffled<1, 0>(t131);
        const Q t204 = joined(t202, t203);
        // complex block of 29
        const Q t205 = Q(c[8], c[8], c[9], c[9]) * t204;
        const P t206 = part<1>(t182);
        const P t207 = shuffled<1, 0>(t144);
        const Q t208 = joined(t206, t207);
        const Q t209 = Q(c[10], c[10], c[11], c[11]) * t208;
        const Q t210 = t205 + t209;
        const P t211 = shuffled<1, 0>(t132);
        const Q t212 = joined(t202, t211);
        const Q t213 = Q(c[10], c[10], c[12], -c[12]) * t212;
        const P t214 = shuffled<1, 0>(t145);
        const Q t215 = joined(t206, t214);
        const Q t216 = Q(c[8], c[8], c[13], -c[13]) * t215;
        const Q t217 = t213 - t216;
        const Q t218 = shuffled<0, 1, 6, 7>(t177, t212);
        const Q t219 = Q(c[14], c[14], c[13], c[13]) * t218;
        const Q t220 = shuffled<0, 1, 6, 7>(t182, t215);
        const Q t221 = Q(-c[15], -c[15], c[12], c[12]) * t220;
        const Q t222 = t219 + t221;
        const Q t223 = shuffled<0, 1, 6, 7>(t218, t208);
        const Q t224 = Q(c[15], c[15], -c[9], c[9]) * t223;
        const Q t225 = shuffled<0, 1, 6, 7>(t220, t204);
        const Q t226 = Q(c[14], c[14], c[11], -c[11]) * t225;
        const Q t227 = t224 + t226;
        // complex block of 2
        const Q t228 = t227 - t217;
        const Q t229 = t222 + t210;
        const Q t230 = t217 + t227;
        const Q t231 = flipped<0, 0, 0, 1>(t222);
        const Q t232 = flipped<0, 0, 0, 1>(t210);
        const Q t233 = t231 - t232;
        const Q t234 = shuffled<0, 1, 4, 5>(t228, t230);
        const Q t235 = shuffled<2, 3, 6, 7>(t228, t233);
        const Q t236 = flipped<0, 0, 1, 1>(t235);
        // complex block of 2
        const Q t237 = t234 + t236;
        const Q t238 = shuffled<0, 1, 4, 5>(t229, t233);
        const Q t239 = shuffled<2, 3, 6, 7>(t229, t230);
        const Q t240 = flipped<1, 0, 0, 0>(t239);
        const Q t241 = t238 - t240;
        const Q t242 = t234 - t236;
        const Q t243 = t238 + t240;
        const Q t244 = shuffled<0, 1, 6, 7>(t160, t161);
        // complex block of 29
        const Q t245 = Q(c[16], c[16], c[17], c[17]) * t244;
        const Q t246 = shuffled<0, 1, 6, 7>(t169, t171);
        const Q t247 = Q(-c[18], -c[18], c[19], c[19]) * t246;
        const Q t248 = t245 + t247;
        const Q t249 = shuffled<2, 3, 4, 5>(t160, t161);
        const Q t250 = Q(c[20], c[20], c[21], c[21]) * t249;
        const Q t251 = shuffled<2, 3, 4, 5>(t169, t171);
        const Q t252 = Q(-c[22], -c[22], c[23], c[23]) * t251;
        const Q t253 = t250 + t252;
        const Q t254 = flipped<0, 0, 1, 1>(t253);
        // complex block of 2
        const Q t255 = t248 + t254;
        const Q t256 = t248 - t254;
        const Q t257 = shuffled<0, 1, 6, 7>(t246, t249);
        // complex block of 29
        const Q t258 = Q(c[16], c[16], c[23], c[23]) * t257;
        const Q t259 = shuffled<0, 1, 6, 7>(t244, t251);
        const Q t260 = Q(c[18], c[18], -c[21], -c[21]) * t259;
        const Q t261 = t258 + t260;
        const Q t262 = shuffled<0, 1, 6, 7>(t251, t244);
        const Q t263 = Q(c[20], c[20], c[19], c[19]) * t262;
        const Q t264 = shuffled<0, 1, 6, 7>(t249, t246);
        const Q t265 = Q(c[22], c[22], -c[17], -c[17]) * t264;
        const Q t266 = t263 + t265;
        const Q t267 = joined(t118, t116);
        const Q t268 = shuffled<1, 0, 3, 2>(t267);
        const Q t269 = Q(c[24], c[24], c[25], c[25]) * t268;
        const Q t270 = joined(t119, t117);
        const Q t271 = shuffled<1, 0, 3, 2>(t270);
        const Q t272 = Q(c[26], c[26], c[27], c[27]) * t271;
        const Q t273 = t269 + t272;
        const Q t274 = joined(t114, t112);
        const Q t275 = shuffled<1, 0, 3, 2>(t274);
        const Q t276 = Q(c[28], c[28], c[29], c[29]) * t275;
        const Q t277 = joined(t115, t113);
        const Q t278 = shuffled<1, 0, 3, 2>(t277);
        const Q t279 = Q(c[30], c[30], c[31], c[31]) * t278;
        const Q t280 = t276 + t279;
        const Q t281 = shuffled<0, 5, 2, 7>(t273, t280);
        const Q t282 = shuffled<0, 5, 2, 7>(t280, t273);
        // complex block of 2
        const Q t283 = t281 - t282;
        const Q t284 = t280 + t273;
        const Q t285 = shuffled<0, 1, 6, 7>(t268, t271);
        // complex block of 29
        const Q t286 = Q(-c[26], c[26], -c[25], c[25]) * t285;
        const Q t287 = shuffled<0, 1, 6, 7>(t271, t268);
        const Q t288 = Q(c[24], -c[24], c[27], -c[27]) * t287;
        const Q t289 = t286 + t288;
        const Q t290 = shuffled<0, 1, 6, 7>(t278, t275);
        const Q t291 = Q(-c[28], c[28], -c[31], c[31]) * t290;
        const Q t292 = shuffled<0, 1, 6, 7>(t275, t278);
        const Q t293 = Q(c[30], -c[30], c[29], -c[29]) * t292;
        const Q t294 = t291 + t293;
        // complex block of 2
        const Q t295 = t289 - t294;
        const Q t296 = t294 + t289;
        const Q t297 = flipped<0, 0, 1, 1>(t266);
        // complex block of 2
        const Q t298 = t261 + t297;
        // complex block of 2
        const Q t299 = t298 + t295;
        const Q t300 = t298 - t295;
        // complex block of 2
        const Q t301 = t261 - t297;
        const Q t302 = flipped<1, 0, 0, 1>(t284);
        // complex block of 2
        const Q t303 = t301 + t302;
        const Q t304 = t301 - t302;
        // complex block of 2
        const Q t305 = t255 + t283;
        // complex block of 2
        const Q t306 = t256 + t296;
        // complex block of 2
        const Q t307 = t255 - t283;
        const Q t308 = shuffled<0, 1, 6, 7>(t256, t296);
        const Q t309 = shuffled<0, 1, 6, 7>(t296, t256);
        // complex block of 2
        const Q t310 = t308 - t309;
        const Q t311 = shuffled<0, 1, 4, 5>(t305, t306);
        const Q t312 = shuffled<2, 3, 6, 7>(t305, t306);
        const Q t313 = flipped<0, 0, 1, 1>(t312);
        // spectrum block of 7, multiplier 4
        const Q t314 = t311 + t313;
        const Q t315 = t314 + t241;
        const Q t316 = t315 + t200;
        io.pairs(1, 17, t316);
        const Q t317 = c[0] * t311;
        const Q t318 = Q(-c[1], -c[1], c[1], c[1]) * t312;
        const Q t319 = t317 + t318;
        const Q t320 = c[2] * t241;
        const Q t321 = t319 - t320;
        const Q t322 = shuffled<0, 1, 4, 5>(t299, t303);
        const Q t323 = c[3] * t322;
        const Q t324 = shuffled<2, 3, 6, 7>(t299, t303);
        const Q t325 = c[4] * t324;
        const Q t326 = t323 + t325;
        const Q t327 = t321 + t200;
        const Q t328 = c[5] * t237;
        const Q t329 = t326 + t328;
        const Q t330 = t327 - t329;
        io.pairs(23, 14, t330);
        const Q t331 = t327 + t329;
        io.pairs(24, 2, t331);
        const Q t332 = c[1] * t311;
        const Q t333 = t200 - t332;
        const Q t334 = Q(-c[2], -c[2], c[2], c[2]) * t312;
        const Q t335 = t333 + t334;
        const Q t336 = c[4] * t322;
        const Q t337 = c[5] * t324;
        const Q t338 = t336 - t337;
        const Q t339 = c[0] * t241;
        const Q t340 = t335 + t339;
        const Q t341 = c[3] * t237;
        const Q t342 = t338 - t341;
        const Q t343 = t340 - t342;
        io.pairs(7, 3, t343);
        const Q t344 = t340 + t342;
        io.pairs(25, 19, t344);
        const Q t345 = c[2] * t311;
        const Q t346 = t200 - t345;
        const Q t347 = Q(c[0], c[0], -c[0], -c[0]) * t312;
        const Q t348 = t346 + t347;
        const Q t349 = c[5] * t322;
        const Q t350 = c[3] * t324;
        const Q t351 = t349 - t350;
        const Q t352 = c[1] * t241;
        const Q t353 = t348 - t352;
        const Q t354 = c[4] * t237;
        const Q t355 = t351 + t354;
        const Q t356 = t353 - t355;
        io.pairs(16, 11, t356);
        const Q t357 = t353 + t355;
        io.pairs(20, 21, t357);
        const Q t358 = shuffled<0, 1, 4, 5>(t307, t310);
        const Q t359 = shuffled<2, 3, 6, 7>(t307, t310);
        // spectrum block of 7, multiplier 4
        const Q t360 = t358 + t359;
        const Q t361 = t360 + t243;
        const Q t362 = t361 + t201;
        io.pairs(28, 12, t362);
        const Q t363 = c[0] * t358;
        const Q t364 = c[1] * t359;
        const Q t365 = t363 - t364;
        const Q t366 = c[2] * t243;
        const Q t367 = t365 - t366;
        const Q t368 = shuffled<0, 1, 4, 5>(t300, t304);
        const Q t369 = c[3] * t368;
        const Q t370 = shuffled<2, 3, 6, 7>(t300, t304);
        const Q t371 = c[4] * t370;
        const Q t372 = t369 + t371;
        const Q t373 = t367 + t201;
        const Q t374 = c[5] * t242;
        const Q t375 = t372 + t374;
        const Q t376 = t373 - t375;
        io.pairs(6, 15, t376);
        const Q t377 = t373 + t375;
        io.pairs(5, 27, t377);
        const Q t378 = c[1] * t358;
        const Q t379 = t201 - t378;
        const Q t380 = c[2] * t359;
        const Q t381 = t379 - t380;
        const Q t382 = c[4] * t368;
        const Q t383 = c[5] * t370;
        const Q t384 = t382 - t383;
        const Q t385 = c[0] * t243;
        const Q t386 = t381 + t385;
        const Q t387 = c[3] * t242;
        const Q t388 = t384 - t387;
        const Q t389 = t386 - t388;
        io.pairs(22, 26, t389);
        const Q t390 = t386 + t388;
        io.pairs(4, 10, t390);
        const Q t391 = c[2] * t358;
        const Q t392 = t201 - t391;
        const Q t393 = c[0] * t359;
        const Q t394 = t392 + t393;
        const Q t395 = c[5] * t368;
        const Q t396 = c[3] * t370;
        const Q t397 = t395 - t396;
        const Q t398 = c[1] * t243;
        const Q t399 = t394 - t398;
        const Q t400 = c[4] * t242;
        const Q t401 = t397 + t400;
        const Q t402 = t399 - t401;
        io.pairs(13, 18, t402);
        const Q t403 = t399 + t401;
        io.pairs(9, 8, t403);
    }
};

}  // namespace zulg
