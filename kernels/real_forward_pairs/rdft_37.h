// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 37.
// Forward DFT of 37 real points, Rader 4, 9; two lanes to a register.
// 129 sums, 84 differences, 122 products of registers, which do the 665 steps of the graph, those with
// `scale` included; 119 shuffles, 27 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<37> {
    static constexpr int steps = 665;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.766044443118978,  // c[2]: cos 2 pi 8/9
        0.6427876096865394,  // c[3]: -sin 2 pi 8/9
        0.9396926207859084,  // c[4]: -cos 2 pi 4/9
        0.3420201433256687,  // c[5]: sin 2 pi 4/9
        0.17364817766693036,  // c[6]: cos 2 pi 7/9
        0.984807753012208,  // c[7]: -sin 2 pi 7/9
        0.1503837331804353,  // c[8]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[10]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[11]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.29019472587628237,  // c[12]: -P[1] of 37
        0.1731604803001738,  // c[13]: -Q[1] of 37
        0.27801178968802176,  // c[14]: Q[2] of 37
        0.19211188317920547,  // c[15]: P[2] of 37
        0.3200973041246296,  // c[16]: P[3] of 37
        0.10832934393017396,  // c[17]: -Q[3] of 37
        0.3103516055691282,  // c[18]: P[4] of 37
        0.13371391769319224,  // c[19]: Q[4] of 37
        0.24288635390370164,  // c[20]: P[5] of 37
        0.2349547827807796,  // c[21]: Q[5] of 37
        0.3290788923998385,  // c[22]: Q[6] of 37
        0.07684148255397624,  // c[23]: -P[6] of 37
        0.22329890434335598,  // c[24]: Q[7] of 37
        0.25364370716273305,  // c[25]: P[7] of 37
        0.24397448521981976,  // c[26]: P[8] of 37
        0.2338246809597342,  // c[27]: Q[8] of 37
        0.2578482977363278,  // c[28]: -Q[9] of 37
        0.21843027770589768,  // c[29]: -P[9] of 37
        0.22496483527968195,  // c[30]: -P[10] of 37
        0.25216731301218065,  // c[31]: Q[10] of 37
        0.1782451073659696,  // c[32]: P[11] of 37
        0.2870996561549517,  // c[33]: -Q[11] of 37
        0.12424540759822993,  // c[34]: P[12] of 37
        0.3142620078134601,  // c[35]: -Q[12] of 37
        0.3301590368394409,  // c[36]: -P[13] of 37
        0.07205928987611672,  // c[37]: -Q[13] of 37
        0.2912479292396942,  // c[38]: Q[14] of 37
        0.17138312220807392,  // c[39]: P[14] of 37
        0.15947907926271018,  // c[40]: -P[15] of 37
        0.2979328013860101,  // c[41]: Q[15] of 37
        0.10416787634306994,  // c[42]: P[16] of 37
        0.32147563578344845,  // c[43]: Q[16] of 37
        0.3368755881752301,  // c[44]: P[17] of 37
        0.026690240834250763,  // c[45]: -Q[17] of 37
        0.75,  // c[46]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[47]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.6634139481689384,  // c[48]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[49]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.027777777777777776,  // c[50]: 1/36
        0.1689656258416172,  // c[51]: beta of 37
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x1_16 = io.in(1, 16);
        const P x36_21 = io.in(36, 21);
        // real block of 2
        const P t0 = x1_16 + x36_21;
        const P t1 = x1_16 - x36_21;
        const P x31_15 = io.in(31, 15);
        const P x6_22 = io.in(6, 22);
        // real block of 2
        const P t2 = x31_15 + x6_22;
        const P t3 = x31_15 - x6_22;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x34_26 = io.in(34, 26);
        const P x3_11 = io.in(3, 11);
        // real block of 2
        const P t6 = x34_26 + x3_11;
        const P t7 = x34_26 - x3_11;
        const P x18_29 = io.in(18, 29);
        const P x19_8 = io.in(19, 8);
        // real block of 2
        const P t8 = x18_29 + x19_8;
        const P t9 = x18_29 - x19_8;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x9_33 = io.in(9, 33);
        const P x28_4 = io.in(28, 4);
        // real block of 2
        const P t12 = x9_33 + x28_4;
        const P t13 = x9_33 - x28_4;
        const P x20_24 = io.in(20, 24);
        const P x17_13 = io.in(17, 13);
        // real block of 2
        const P t14 = x20_24 + x17_13;
        const P t15 = x20_24 - x17_13;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        const P x10_12 = io.in(10, 12);
        const P x27_25 = io.in(27, 25);
        // real block of 2
        const P t18 = x10_12 + x27_25;
        const P t19 = x10_12 - x27_25;
        const P x14_2 = io.in(14, 2);
        const P x23_35 = io.in(23, 35);
        // real block of 2
        const P t20 = x14_2 + x23_35;
        const P t21 = x14_2 - x23_35;
        // real block of 2
        const P t22 = t18 + t20;
        const P t23 = t18 - t20;
        const P x7_32 = io.in(7, 32);
        const P x30_5 = io.in(30, 5);
        // real block of 2
        const P t24 = x7_32 + x30_5;
        const P t25 = x7_32 - x30_5;
        const V t26 = part<0>(t24);
        const V t27 = part<1>(t24);
        // real block of 2
        const V t28 = t26 + t27;
        const V t29 = t26 - t27;
        const P t30 = shuffled<1, 3>(t7, t9);
        const P t31 = shuffled<0, 2>(t19, t21);
        // complex block of 3
        const P t32 = t30 + t31;
        const P t33 = shuffled<0, 3>(t30, t31);
        const P t34 = shuffled<0, 3>(t31, t30);
        const P t35 = t33 - t34;
        const P t36 = shuffled<0, 2>(t1, t3);
        const P t37 = t32 + t36;
        const P t38 = P(-c[0], c[0]) * t32;
        const P t39 = flipped<0, 1>(t36);
        const P t40 = t38 + t39;
        const P t41 = P(-c[1], c[1]) * t35;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        const P t45 = shuffled<0, 2>(t13, t15);
        const P t46 = shuffled<1, 3>(t19, t21);
        // complex block of 3
        const P t47 = t45 + t46;
        const P t48 = shuffled<0, 3>(t45, t46);
        const P t49 = shuffled<0, 3>(t46, t45);
        const P t50 = t48 - t49;
        const P t51 = shuffled<1, 3>(t1, t3);
        const P t52 = t47 + t51;
        const P t53 = P(-c[0], c[0]) * t47;
        const P t54 = flipped<0, 1>(t51);
        const P t55 = t53 + t54;
        const P t56 = P(-c[1], c[1]) * t50;
        const P t57 = shuffled<1, 0>(t56);
        const P t58 = t55 + t57;
        const P t59 = t55 - t57;
        const P t60 = shuffled<1, 3>(t13, t15);
        // complex block of 3
        const P t61 = t60 + t25;
        const P t62 = shuffled<0, 3>(t60, t25);
        const P t63 = shuffled<0, 3>(t25, t60);
        const P t64 = t62 - t63;
        const P t65 = shuffled<0, 2>(t7, t9);
        const P t66 = t61 + t65;
        const P t67 = P(-c[0], c[0]) * t61;
        const P t68 = flipped<0, 1>(t65);
        const P t69 = t67 + t68;
        const P t70 = P(-c[1], c[1]) * t64;
        const P t71 = shuffled<1, 0>(t70);
        const P t72 = t69 + t71;
        const P t73 = t69 - t71;
        // complex block of 3
        const P t74 = t52 + t66;
        const P t75 = shuffled<0, 3>(t52, t66);
        const P t76 = shuffled<0, 3>(t66, t52);
        const P t77 = t75 - t76;
        const P t78 = t74 + t37;
        const P t79 = P(-c[0], c[0]) * t74;
        const P t80 = flipped<0, 1>(t37);
        const P t81 = t79 + t80;
        const P t82 = P(-c[1], c[1]) * t77;
        const P t83 = shuffled<1, 0>(t82);
        const P t84 = t81 + t83;
        const P t85 = t81 - t83;
        // complex block of 9, multiplier 4
        const P t86 = P(-c[4], c[4]) * t58;
        const P t87 = shuffled<1, 0>(t58);
        const P t88 = c[5] * t87;
        const P t89 = t86 + t88;
        const P t90 = c[2] * t72;
        const P t91 = shuffled<1, 0>(t72);
        const P t92 = P(-c[3], c[3]) * t91;
        const P t93 = t90 + t92;
        const P t94 = flipped<0, 1>(t89);
        // complex block of 3
        const P t95 = t93 + t94;
        const P t96 = flipped<1, 0>(t93);
        const P t97 = t89 + t96;
        const P t98 = t95 + t43;
        const P t99 = c[0] * t95;
        const P t100 = t43 - t99;
        const P t101 = c[1] * t97;
        const P t102 = shuffled<1, 0>(t101);
        const P t103 = t100 - t102;
        const P t104 = t100 + t102;
        // complex block of 9, multiplier 4
        const P t105 = c[2] * t59;
        const P t106 = shuffled<1, 0>(t59);
        const P t107 = P(-c[3], c[3]) * t106;
        const P t108 = t105 + t107;
        const P t109 = c[6] * t73;
        const P t110 = shuffled<1, 0>(t73);
        const P t111 = P(-c[7], c[7]) * t110;
        const P t112 = t109 + t111;
        // complex block of 3
        const P t113 = t108 + t112;
        const P t114 = t108 - t112;
        const P t115 = t113 + t44;
        const P t116 = c[0] * t113;
        const P t117 = t44 - t116;
        const P t118 = P(-c[1], c[1]) * t114;
        const P t119 = shuffled<1, 0>(t118);
        const P t120 = t117 + t119;
        const P t121 = t117 - t119;
        const P t122 = shuffled<1, 3>(t10, t11);
        const P t123 = shuffled<0, 2>(t22, t23);
        // real block of 3
        const P t124 = t122 + t123;
        const P t125 = t122 - t123;
        const P t126 = shuffled<0, 2>(t4, t5);
        const P t127 = t124 + t126;
        const P t128 = c[0] * t124;
        const P t129 = t126 - t128;
        const P t130 = shuffled<0, 2>(t16, t17);
        const P t131 = shuffled<1, 3>(t22, t23);
        // real block of 3
        const P t132 = t130 + t131;
        const P t133 = t130 - t131;
        const P t134 = shuffled<1, 3>(t4, t5);
        const P t135 = t132 + t134;
        const P t136 = c[0] * t132;
        const P t137 = t134 - t136;
        const P t138 = shuffled<1, 3>(t16, t17);
        const P t139 = joined(t28, t29);
        // real block of 3
        const P t140 = t138 + t139;
        const P t141 = t138 - t139;
        const P t142 = shuffled<0, 2>(t10, t11);
        const P t143 = t140 + t142;
        const P t144 = c[0] * t140;
        const P t145 = t142 - t144;
        // real block of 3
        const P t146 = t135 + t143;
        const P t147 = t135 - t143;
        const P t148 = t146 + t127;
        const P t149 = c[0] * t146;
        const P t150 = t127 - t149;
        // real block of 9, multiplier 4
        const P t151 = c[4] * t137;
        // real block of 3
        const P t152 = c[1] * t133;
        // real block of 9, multiplier 4
        const P t153 = c[5] * t152;
        const P t154 = t151 + t153;
        const P t155 = c[4] * t152;
        const P t156 = c[5] * t137;
        const P t157 = t155 - t156;
        const P t158 = c[2] * t145;
        // real block of 3
        const P t159 = c[1] * t141;
        // real block of 9, multiplier 4
        const P t160 = c[3] * t159;
        const P t161 = t158 + t160;
        const P t162 = c[3] * t145;
        const P t163 = c[2] * t159;
        const P t164 = t162 - t163;
        // complex block of 3
        const P t165 = t161 - t154;
        const P t166 = t157 + t164;
        const P t167 = t154 + t161;
        const P t168 = t157 - t164;
        const P t169 = t165 + t129;
        // real block of 3
        const P t170 = c[1] * t125;
        // complex block of 3
        const P t171 = t166 - t170;
        const P t172 = c[0] * t165;
        const P t173 = t129 - t172;
        const P t174 = c[0] * t166;
        const P t175 = t170 + t174;
        const P t176 = c[1] * t168;
        const P t177 = t173 + t176;
        const P t178 = c[1] * t167;
        const P t179 = t178 - t175;
        const P t180 = t173 - t176;
        const P t181 = t175 + t178;
        const V x0 = io.in(0);
        const V t182 = part<0>(t148);
        // real block of 37
        const V t183 = x0 + t182;
        io.re(0, t183);
        const V t184 = c[50] * t182;
        const V t185 = x0 - t184;
        const P t186 = P(-c[12], c[12]) * t104;
        const P t187 = shuffled<1, 0>(t104);
        const P t188 = c[13] * t187;
        const P t189 = t186 + t188;
        const P t190 = shuffled<1, 3>(t179, t177);
        const P t191 = c[14] * t190;
        const P t192 = shuffled<1, 0>(t190);
        const P t193 = P(c[15], -c[15]) * t192;
        const P t194 = t191 + t193;
        const P t195 = c[16] * t85;
        const P t196 = shuffled<1, 0>(t85);
        const P t197 = P(-c[17], c[17]) * t196;
        const P t198 = t195 + t197;
        const P t199 = shuffled<0, 2>(t169, t171);
        const P t200 = c[18] * t199;
        const P t201 = shuffled<1, 0>(t199);
        const P t202 = P(-c[19], c[19]) * t201;
        const P t203 = t200 + t202;
        const P t204 = c[20] * t121;
        const P t205 = shuffled<1, 0>(t121);
        const P t206 = P(-c[21], c[21]) * t205;
        const P t207 = t204 + t206;
        // real block of 3
        const P t208 = c[1] * t147;
        const P t209 = shuffled<1, 3>(t208, t150);
        // real block of 37
        const P t210 = c[22] * t209;
        const P t211 = shuffled<1, 0>(t209);
        const P t212 = P(c[23], -c[23]) * t211;
        const P t213 = t210 + t212;
        const P t214 = shuffled<1, 0>(t120);
        const P t215 = c[24] * t214;
        const P t216 = P(c[25], -c[25]) * t120;
        const P t217 = t215 + t216;
        const P t218 = shuffled<0, 2>(t180, t181);
        const P t219 = c[26] * t218;
        const P t220 = shuffled<1, 0>(t218);
        const P t221 = P(-c[27], c[27]) * t220;
        const P t222 = t219 + t221;
        const P t223 = shuffled<1, 0>(t78);
        const P t224 = c[28] * t223;
        const P t225 = P(c[29], -c[29]) * t78;
        const P t226 = t224 + t225;
        const P t227 = shuffled<1, 3>(t180, t181);
        const P t228 = P(-c[30], c[30]) * t227;
        const P t229 = shuffled<1, 0>(t227);
        const P t230 = c[31] * t229;
        const P t231 = t228 + t230;
        const P t232 = c[32] * t103;
        const P t233 = shuffled<1, 0>(t103);
        const P t234 = P(-c[33], c[33]) * t233;
        const P t235 = t232 + t234;
        const P t236 = shuffled<0, 2>(t150, t208);
        const P t237 = c[34] * t236;
        const P t238 = shuffled<1, 0>(t236);
        const P t239 = P(-c[35], c[35]) * t238;
        const P t240 = t237 + t239;
        const P t241 = P(-c[36], c[36]) * t98;
        const P t242 = shuffled<1, 0>(t98);
        const P t243 = c[37] * t242;
        const P t244 = t241 + t243;
        const P t245 = shuffled<1, 3>(t171, t169);
        const P t246 = c[38] * t245;
        const P t247 = shuffled<1, 0>(t245);
        const P t248 = P(c[39], -c[39]) * t247;
        const P t249 = t246 + t248;
        const P t250 = P(-c[40], c[40]) * t84;
        const P t251 = shuffled<1, 0>(t84);
        const P t252 = c[41] * t251;
        const P t253 = t250 + t252;
        const P t254 = shuffled<0, 2>(t177, t179);
        const P t255 = c[42] * t254;
        const P t256 = shuffled<1, 0>(t254);
        const P t257 = P(-c[43], c[43]) * t256;
        const P t258 = t255 + t257;
        const P t259 = c[44] * t115;
        const P t260 = shuffled<1, 0>(t115);
        const P t261 = P(c[45], -c[45]) * t260;
        const P t262 = t259 + t261;
        const V t263 = part<1>(t148);
        const V t264 = c[51] * t263;
        // spectrum block of 2
        const V t265 = t185 + t264;
        const V t266 = t185 - t264;
        const P t267 = flipped<0, 1>(t249);
        // complex block of 2
        const P t268 = t203 + t267;
        const P t269 = t203 - t267;
        const P t270 = flipped<0, 1>(t231);
        // complex block of 2
        const P t271 = t222 + t270;
        const P t272 = t222 - t270;
        const P t273 = flipped<1, 0>(t213);
        // complex block of 2
        const P t274 = t240 + t273;
        const P t275 = flipped<0, 1>(t240);
        const P t276 = t213 + t275;
        const P t277 = flipped<0, 1>(t194);
        // complex block of 2
        const P t278 = t258 + t277;
        const P t279 = t258 - t277;
        const P t280 = shuffled<0, 2>(t274, t276);
        const P t281 = joined(t265, t266);
        // spectrum block of 3, multiplier 2
        const P t282 = t280 + t281;
        const P t283 = c[0] * t280;
        const P t284 = t281 - t283;
        const P t285 = shuffled<1, 3>(t274, t276);
        const P t286 = P(c[1], -c[1]) * t285;
        const P t287 = t284 + t286;
        const P t288 = t284 - t286;
        const P t289 = shuffled<1, 3>(t278, t279);
        const P t290 = shuffled<1, 3>(t271, t272);
        // complex block of 3, multiplier 2
        const P t291 = t289 - t290;
        const P t292 = shuffled<0, 2>(t278, t279);
        const P t293 = shuffled<0, 2>(t271, t272);
        const P t294 = t292 + t293;
        const P t295 = t289 + t290;
        const P t296 = t292 - t293;
        const P t297 = shuffled<1, 3>(t268, t269);
        const P t298 = t291 + t297;
        const P t299 = shuffled<0, 2>(t268, t269);
        const P t300 = t294 + t299;
        const P t301 = c[0] * t291;
        const P t302 = t297 - t301;
        const P t303 = c[0] * t294;
        const P t304 = t299 - t303;
        const P t305 = c[1] * t296;
        const P t306 = t302 + t305;
        const P t307 = c[1] * t295;
        const P t308 = t304 - t307;
        const P t309 = t302 - t305;
        const P t310 = t304 + t307;
        // spectrum block of 9, multiplier 2
        const P t311 = c[6] * t310;
        const P t312 = c[7] * t309;
        const P t313 = t311 - t312;
        const P t314 = c[4] * t308;
        const P t315 = c[5] * t306;
        const P t316 = t314 + t315;
        // spectrum block of 3, multiplier 2
        const P t317 = t300 + t282;
        const P t318 = c[0] * t300;
        const P t319 = t282 - t318;
        const P t320 = c[1] * t298;
        const P t321 = t319 - t320;
        const P t322 = t319 + t320;
        // spectrum block of 3, multiplier 2
        const P t323 = t313 + t288;
        const P t324 = c[0] * t313;
        const P t325 = t288 - t324;
        const P t326 = c[8] * t309;
        const P t327 = c[9] * t310;
        const P t328 = t326 + t327;
        const P t329 = t325 - t328;
        const P t330 = t325 + t328;
        // spectrum block of 3, multiplier 2
        const P t331 = t287 - t316;
        const P t332 = c[0] * t316;
        const P t333 = t332 + t287;
        const P t334 = c[10] * t308;
        const P t335 = c[11] * t306;
        const P t336 = t334 - t335;
        const P t337 = t333 - t336;
        const P t338 = t333 + t336;
        const P t339 = shuffled<1, 2>(t244, t235);
        const P t340 = shuffled<1, 2>(t235, t244);
        const P t341 = flipped<0, 1>(t340);
        // complex block of 3, multiplier 2
        const P t342 = t339 + t341;
        const P t343 = flipped<1, 0>(t339);
        const P t344 = t340 + t343;
        const P t345 = shuffled<1, 0>(t189);
        const P t346 = flipped<0, 1>(t345);
        const P t347 = t342 + t346;
        const P t348 = c[0] * t342;
        const P t349 = t348 - t346;
        const P t350 = c[1] * t344;
        const P t351 = shuffled<0, 2>(t349, t350);
        const P t352 = shuffled<1, 3>(t350, t349);
        const P t353 = flipped<1, 0>(t352);
        const P t354 = t351 - t353;
        const P t355 = t353 + t351;
        const P t356 = shuffled<1, 0>(t207);
        const P t357 = shuffled<1, 0>(t217);
        const P t358 = flipped<0, 1>(t357);
        // complex block of 3, multiplier 2
        const P t359 = t356 + t358;
        const P t360 = t356 - t358;
        const P t361 = shuffled<1, 0>(t262);
        const P t362 = t359 + t361;
        const P t363 = c[0] * t359;
        const P t364 = t361 - t363;
        const P t365 = P(c[1], -c[1]) * t360;
        const P t366 = shuffled<1, 0>(t365);
        const P t367 = t364 + t366;
        const P t368 = t364 - t366;
        const P t369 = flipped<1, 0>(t347);
        // complex block of 2
        const P t370 = t369 + t362;
        const P t371 = flipped<0, 1>(t362);
        const P t372 = t347 + t371;
        const P t373 = flipped<0, 1>(t355);
        // complex block of 2
        const P t374 = t368 + t373;
        const P t375 = flipped<1, 0>(t368);
        const P t376 = t355 + t375;
        // complex block of 2
        const P t377 = t354 + t367;
        const P t378 = t354 - t367;
        const P t379 = shuffled<0, 3>(t378, t374);
        // mirrored skew block of 18
        const P t380 = P(c[7], c[5]) * t379;
        const P t381 = shuffled<1, 2>(t378, t374);
        const P t382 = P(c[6], c[4]) * t381;
        const P t383 = t380 - t382;
        const P t384 = shuffled<0, 2>(t372, t377);
        const P t385 = P(c[1], c[2]) * t384;
        const P t386 = shuffled<1, 3>(t372, t377);
        const P t387 = P(c[0], -c[3]) * t386;
        const P t388 = t385 + t387;
        const V t389 = part<0>(t376);
        const V t390 = c[3] * t389;
        const V t391 = part<1>(t376);
        const V t392 = c[2] * t391;
        const V t393 = t390 + t392;
        const P t394 = shuffled<1, 0>(t253);
        const P t395 = shuffled<1, 0>(t198);
        // complex block of 2
        const P t396 = t394 - t395;
        const P t397 = t395 + t394;
        const V t398 = part<1>(t397);
        // mirrored skew block of 6
        const V t399 = c[0] * t398;
        const V t400 = part<0>(t397);
        const V t401 = c[1] * t400;
        const V t402 = t399 - t401;
        const V t403 = part<0>(t396);
        const V t404 = part<1>(t226);
        // spectrum block of 3, multiplier 2
        const V t405 = t403 - t404;
        const V t406 = c[0] * t403;
        const V t407 = t404 + t406;
        const V t408 = part<1>(t396);
        const V t409 = c[1] * t408;
        const V t410 = t409 - t407;
        const V t411 = t407 + t409;
        const V t412 = part<0>(t226);
        // spectrum block of 3, multiplier 2
        const V t413 = t402 - t412;
        const V t414 = c[0] * t402;
        const V t415 = t412 + t414;
        const V t416 = c[46] * t398;
        const V t417 = c[47] * t400;
        const V t418 = t416 + t417;
        const V t419 = t415 + t418;
        const V t420 = t418 - t415;
        const V t421 = part<0>(t370);
        // spectrum block of 3, multiplier 2
        const V t422 = t421 + t405;
        const V t423 = part<0>(t317);
        const P t424 = joined(t423, t422);
        io.pair(1, t424);
        const V t425 = c[0] * t421;
        const V t426 = t405 - t425;
        const V t427 = part<1>(t370);
        const V t428 = c[1] * t427;
        const V t429 = t426 + t428;
        const V t430 = part<0>(t322);
        const V t431 = flipped<1>(t429);
        const P t432 = joined(t430, t431);
        io.pair(11, t432);
        const V t433 = t426 - t428;
        const V t434 = part<0>(t321);
        const P t435 = joined(t434, t433);
        io.pair(10, t435);
        const P t436 = joined(t413, t410);
        // spectrum block of 3, multiplier 2
        const P t437 = t383 + t436;
        const P t438 = shuffled<0, 3>(t323, t437);
        io.pair(9, t438);
        const P t439 = shuffled<1, 2>(t338, t437);
        io.pair(18, negated<0, 1>(t439));
        const P t440 = c[0] * t383;
        const P t441 = t436 - t440;
        const P t442 = shuffled<0, 3>(t381, t379);
        const P t443 = P(c[9], c[11]) * t442;
        const P t444 = shuffled<0, 3>(t379, t381);
        const P t445 = P(c[8], c[10]) * t444;
        const P t446 = t443 + t445;
        const P t447 = flipped<0, 1>(t441);
        const P t448 = t446 + t447;
        const P t449 = shuffled<0, 3>(t330, t448);
        io.pair(12, negated<0, 1>(t449));
        const P t450 = shuffled<1, 2>(t337, t448);
        io.pair(13, t450);
        const P t451 = flipped<1, 0>(t446);
        const P t452 = t441 + t451;
        const P t453 = shuffled<1, 2>(t331, t452);
        io.pair(5, t453);
        const P t454 = shuffled<0, 3>(t329, t452);
        io.pair(16, t454);
        const V t455 = part<1>(t388);
        const P t456 = joined(t419, t455);
        const V t457 = part<0>(t388);
        const P t458 = joined(t457, t411);
        // spectrum block of 3, multiplier 2
        const P t459 = t456 - t458;
        const P t460 = shuffled<0, 3>(t331, t459);
        io.pair(7, t460);
        const P t461 = shuffled<1, 2>(t321, t459);
        io.pair(14, t461);
        const P t462 = shuffled<0, 3>(t456, t458);
        const P t463 = c[0] * t388;
        const P t464 = t462 + t463;
        const P t465 = P(c[46], c[48]) * t386;
        const P t466 = P(-c[47], c[49]) * t384;
        const P t467 = t465 + t466;
        const P t468 = flipped<0, 1>(t464);
        const P t469 = t467 + t468;
        const P t470 = shuffled<0, 3>(t338, t469);
        io.pair(3, negated<0, 1>(t470));
        const P t471 = shuffled<1, 2>(t317, t469);
        io.pair(6, negated<0, 1>(t471));
        const P t472 = flipped<1, 0>(t467);
        const P t473 = t464 + t472;
        const P t474 = shuffled<0, 3>(t337, t473);
        io.pair(4, t474);
        const P t475 = shuffled<1, 2>(t322, t473);
        io.pair(8, negated<0, 1>(t475));
        // spectrum block of 3, multiplier 2
        const V t476 = t393 + t420;
        const V t477 = part<1>(t329);
        const V t478 = flipped<1>(t476);
        const P t479 = joined(t477, t478);
        io.pair(15, t479);
        const V t480 = c[0] * t393;
        const V t481 = t420 - t480;
        const V t482 = c[48] * t389;
        const V t483 = c[49] * t391;
        const V t484 = t482 - t483;
        const V t485 = t481 + t484;
        const V t486 = part<1>(t323);
        const P t487 = joined(t486, t485);
        io.pair(17, t487);
        const V t488 = t481 - t484;
        const V t489 = part<1>(t330);
        const V t490 = flipped<1>(t488);
        const P t491 = joined(t489, t490);
        io.pair(2, t491);
    }
};

}  // namespace zulg
