// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 37.
// Inverse DFT to 37 real points, Rader 9, 4; two lanes to a register.
// 126 sums, 78 differences, 137 products of registers, which do the 711 steps of the graph, those with
// `scale` included; 114 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<37> {
    static constexpr int steps = 711;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        2.0,  // c[2]: 2
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.9396926207859084,  // c[4]: -cos 2 pi 4/9
        0.766044443118978,  // c[5]: cos 2 pi 4/36
        0.6427876096865394,  // c[6]: sin 2 pi 4/36
        0.17364817766693036,  // c[7]: cos 2 pi 2/9
        0.984807753012208,  // c[8]: sin 2 pi 2/9
        0.29019472587628237,  // c[9]: P[1] of 37
        0.1731604803001738,  // c[10]: -Q[1] of 37
        0.27801178968802176,  // c[11]: Q[2] of 37
        0.19211188317920547,  // c[12]: P[2] of 37
        0.10832934393017396,  // c[13]: -Q[3] of 37
        0.3200973041246296,  // c[14]: -P[3] of 37
        0.3103516055691282,  // c[15]: P[4] of 37
        0.13371391769319224,  // c[16]: Q[4] of 37
        0.2349547827807796,  // c[17]: Q[5] of 37
        0.24288635390370164,  // c[18]: -P[5] of 37
        0.22329890434335598,  // c[19]: Q[7] of 37
        0.25364370716273305,  // c[20]: -P[7] of 37
        0.2338246809597342,  // c[21]: Q[8] of 37
        0.24397448521981976,  // c[22]: P[8] of 37
        0.2578482977363278,  // c[23]: -Q[9] of 37
        0.21843027770589768,  // c[24]: P[9] of 37
        0.25216731301218065,  // c[25]: Q[10] of 37
        0.22496483527968195,  // c[26]: -P[10] of 37
        0.2870996561549517,  // c[27]: -Q[11] of 37
        0.1782451073659696,  // c[28]: -P[11] of 37
        0.3301590368394409,  // c[29]: P[13] of 37
        0.07205928987611672,  // c[30]: -Q[13] of 37
        0.2912479292396942,  // c[31]: Q[14] of 37
        0.17138312220807392,  // c[32]: P[14] of 37
        0.2979328013860101,  // c[33]: Q[15] of 37
        0.15947907926271018,  // c[34]: P[15] of 37
        0.10416787634306994,  // c[35]: P[16] of 37
        0.32147563578344845,  // c[36]: Q[16] of 37
        0.026690240834250763,  // c[37]: -Q[17] of 37
        0.3368755881752301,  // c[38]: -P[17] of 37
        0.29619813272602386,  // c[39]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[40]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.6634139481689384,  // c[41]: -sin 2 pi 2/3 times cos 2 pi 4/36
        0.5566703992264194,  // c[42]: -sin 2 pi 2/3 times sin 2 pi 4/36
        0.027777777777777776,  // c[43]: 1/36
        0.12424540759822993,  // c[44]: P[12] of 37
        0.3290788923998385,  // c[45]: Q[6] of 37
        0.3142620078134601,  // c[46]: -Q[12] of 37
        0.07684148255397624,  // c[47]: -P[6] of 37
        0.1689656258416172,  // c[48]: beta of 37
        0.10759967928361923,  // c[49]: -sin 2 pi 2/3 times P[12] of 37
        0.06654667595620217,  // c[50]: -sin 2 pi 2/3 times -P[6] of 37
        0.2721588822107602,  // c[51]: -sin 2 pi 2/3 times -Q[12] of 37
        0.284990680667506,  // c[52]: -sin 2 pi 2/3 times Q[6] of 37
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x1 = io.pair(1);
        // doubled bins
        const P t0 = c[2] * x1;
        const P x4 = io.pair(4);
        const P t1 = c[2] * x4;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x6 = io.pair(6);
        const P t3 = c[2] * x6;
        const P x13 = io.pair(13);
        const P t4 = c[2] * x13;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 2
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x16 = io.pair(16);
        // doubled bins
        const P t8 = c[2] * x16;
        const P x10 = io.pair(10);
        const P t9 = c[2] * x10;
        const P t10 = shuffled<0, 2>(t8, t9);
        const P x15 = io.pair(15);
        const P t11 = c[2] * x15;
        const P x14 = io.pair(14);
        const P t12 = c[2] * x14;
        const P t13 = shuffled<0, 2>(t11, t12);
        // real block of 2
        const P t14 = t10 + t13;
        const P t15 = t10 - t13;
        const P x3 = io.pair(3);
        // doubled bins
        const P t16 = c[2] * x3;
        const P x12 = io.pair(12);
        const P t17 = c[2] * x12;
        const P t18 = shuffled<0, 2>(t16, t17);
        const P x18 = io.pair(18);
        const P t19 = c[2] * x18;
        const P x2 = io.pair(2);
        const P t20 = c[2] * x2;
        const P t21 = shuffled<0, 2>(t19, t20);
        // real block of 2
        const P t22 = t18 + t21;
        const P t23 = t18 - t21;
        const P x11 = io.pair(11);
        // doubled bins
        const P t24 = c[2] * x11;
        const P x7 = io.pair(7);
        const P t25 = c[2] * x7;
        const P t26 = shuffled<0, 2>(t24, t25);
        const P x8 = io.pair(8);
        const P t27 = c[2] * x8;
        const P x5 = io.pair(5);
        const P t28 = c[2] * x5;
        const P t29 = shuffled<0, 2>(t27, t28);
        // real block of 2
        const P t30 = t26 + t29;
        const P t31 = t26 - t29;
        const P x9 = io.pair(9);
        // doubled bins
        const P t32 = c[2] * x9;
        const V t33 = part<0>(t32);
        const P x17 = io.pair(17);
        const P t34 = c[2] * x17;
        const V t35 = part<0>(t34);
        // real block of 2
        const V t36 = t33 + t35;
        const V t37 = t33 - t35;
        const P t38 = shuffled<1, 3>(t14, t15);
        const P t39 = shuffled<0, 2>(t30, t31);
        // real block of 3, multiplier 2
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = shuffled<0, 2>(t6, t7);
        const P t43 = t40 + t42;
        const P t44 = c[0] * t40;
        const P t45 = t42 - t44;
        const P t46 = shuffled<0, 2>(t22, t23);
        const P t47 = shuffled<1, 3>(t30, t31);
        // real block of 3, multiplier 2
        const P t48 = t46 + t47;
        const P t49 = t46 - t47;
        const P t50 = shuffled<1, 3>(t6, t7);
        const P t51 = t48 + t50;
        const P t52 = c[0] * t48;
        const P t53 = t50 - t52;
        const P t54 = shuffled<1, 3>(t22, t23);
        const P t55 = joined(t36, t37);
        // real block of 3, multiplier 2
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        const P t58 = shuffled<0, 2>(t14, t15);
        const P t59 = t56 + t58;
        const P t60 = c[0] * t56;
        const P t61 = t58 - t60;
        // real block of 3, multiplier 2
        const P t62 = t51 + t59;
        const P t63 = t51 - t59;
        const P t64 = t62 + t43;
        const P t65 = c[0] * t62;
        const P t66 = t43 - t65;
        // real block of 9, multiplier 2
        const P t67 = c[7] * t53;
        // real block of 3, multiplier 2
        const P t68 = c[1] * t49;
        // real block of 9, multiplier 2
        const P t69 = c[8] * t68;
        const P t70 = t67 + t69;
        const P t71 = c[7] * t68;
        const P t72 = c[8] * t53;
        const P t73 = t71 - t72;
        // real block of 3, multiplier 2
        const P t74 = c[1] * t57;
        // real block of 9, multiplier 2
        const P t75 = c[3] * t74;
        const P t76 = c[4] * t61;
        const P t77 = t75 - t76;
        const P t78 = c[4] * t74;
        const P t79 = c[3] * t61;
        const P t80 = t78 + t79;
        // complex block of 3, multiplier 2
        const P t81 = t70 + t77;
        const P t82 = t73 - t80;
        const P t83 = t70 - t77;
        const P t84 = t73 + t80;
        const P t85 = t81 + t45;
        // real block of 3, multiplier 2
        const P t86 = c[1] * t41;
        // complex block of 3, multiplier 2
        const P t87 = t82 + t86;
        const P t88 = c[0] * t81;
        const P t89 = t45 - t88;
        const P t90 = c[0] * t82;
        const P t91 = t86 - t90;
        const P t92 = c[1] * t84;
        const P t93 = t89 + t92;
        const P t94 = c[1] * t83;
        const P t95 = t91 - t94;
        const P t96 = t89 - t92;
        const P t97 = t91 + t94;
        const P t98 = shuffled<1, 3>(t9, t11);
        const P t99 = shuffled<1, 3>(t24, t34);
        // real block of 3
        const P t100 = t98 - t99;
        const P t101 = t99 + t98;
        const P t102 = shuffled<1, 3>(t0, t20);
        const P t103 = t100 + t102;
        const P t104 = c[0] * t100;
        const P t105 = t102 - t104;
        const P t106 = shuffled<1, 3>(t16, t3);
        const P t107 = shuffled<1, 3>(t25, t12);
        // real block of 3
        const P t108 = t106 - t107;
        const P t109 = t106 + t107;
        const P t110 = shuffled<1, 3>(t1, t27);
        const P t111 = t108 + t110;
        const P t112 = c[0] * t108;
        const P t113 = t110 - t112;
        const P t114 = shuffled<1, 3>(t17, t19);
        const P t115 = shuffled<1, 3>(t32, t4);
        const P t116 = flipped<0, 1>(t115);
        // real block of 3
        const P t117 = t114 + t116;
        const P t118 = t114 - t116;
        const P t119 = shuffled<1, 3>(t8, t28);
        const P t120 = flipped<0, 1>(t119);
        const P t121 = t117 + t120;
        const P t122 = P(-c[0], c[0]) * t117;
        const P t123 = t119 + t122;
        // real block of 3
        const P t124 = c[1] * t101;
        const P t125 = shuffled<1, 3>(t105, t124);
        // skew block of 18
        const P t126 = c[8] * t125;
        const P t127 = shuffled<1, 0>(t125);
        const P t128 = P(-c[7], c[7]) * t127;
        const P t129 = t126 + t128;
        // real block of 3
        const P t130 = c[1] * t109;
        const P t131 = shuffled<0, 2>(t113, t130);
        // skew block of 18
        const P t132 = c[4] * t131;
        const P t133 = shuffled<1, 0>(t131);
        const P t134 = P(c[3], -c[3]) * t133;
        const P t135 = t132 + t134;
        const P t136 = shuffled<1, 3>(t113, t130);
        const P t137 = c[1] * t136;
        const P t138 = shuffled<1, 0>(t136);
        const P t139 = P(c[0], -c[0]) * t138;
        const P t140 = t137 + t139;
        // real block of 3
        const P t141 = c[1] * t118;
        const P t142 = shuffled<0, 2>(t123, t141);
        // skew block of 18
        const P t143 = c[5] * t142;
        const P t144 = shuffled<1, 0>(t142);
        const P t145 = P(c[6], -c[6]) * t144;
        const P t146 = t143 + t145;
        const P t147 = shuffled<1, 3>(t141, t123);
        const P t148 = c[5] * t147;
        const P t149 = shuffled<1, 0>(t147);
        const P t150 = P(c[6], -c[6]) * t149;
        const P t151 = t148 + t150;
        // complex block of 3, multiplier 2
        const P t152 = t135 + t146;
        const P t153 = t135 - t146;
        const P t154 = shuffled<0, 2>(t105, t124);
        const P t155 = t152 + t154;
        const P t156 = c[0] * t152;
        const P t157 = t154 - t156;
        const P t158 = P(-c[1], c[1]) * t153;
        const P t159 = shuffled<1, 0>(t158);
        const P t160 = t157 + t159;
        const P t161 = t157 - t159;
        const P t162 = shuffled<0, 3>(t129, t151);
        const P t163 = shuffled<0, 3>(t151, t129);
        // complex block of 3, multiplier 2
        const P t164 = t162 - t163;
        const P t165 = t151 + t129;
        const P t166 = t164 + t140;
        const P t167 = c[0] * t164;
        const P t168 = t140 - t167;
        const P t169 = c[1] * t165;
        const P t170 = shuffled<1, 0>(t169);
        const P t171 = t168 + t170;
        const P t172 = t168 - t170;
        // complex block of 2
        const P t173 = t155 + t166;
        const P t174 = t155 - t166;
        // complex block of 2
        const P t175 = t161 + t172;
        const P t176 = t161 - t172;
        // complex block of 2
        const P t177 = t160 + t171;
        const P t178 = t160 - t171;
        const P t179 = shuffled<1, 2>(t103, t121);
        // skew block of 6
        const P t180 = c[1] * t179;
        const P t181 = shuffled<1, 0>(t179);
        const P t182 = P(-c[0], c[0]) * t181;
        const P t183 = t180 + t182;
        const P t184 = shuffled<0, 3>(t111, t121);
        const P t185 = c[0] * t184;
        const P t186 = shuffled<1, 0>(t184);
        const P t187 = P(-c[1], c[1]) * t186;
        const P t188 = t185 + t187;
        // complex block of 3
        const P t189 = t183 + t188;
        const P t190 = shuffled<0, 3>(t183, t188);
        const P t191 = shuffled<0, 3>(t188, t183);
        const P t192 = t190 - t191;
        const P t193 = shuffled<0, 3>(t103, t111);
        const P t194 = t189 + t193;
        const P t195 = P(-c[0], c[0]) * t189;
        const P t196 = flipped<0, 1>(t193);
        const P t197 = t195 + t196;
        const P t198 = P(-c[1], c[1]) * t192;
        const P t199 = shuffled<1, 0>(t198);
        const P t200 = t197 + t199;
        const P t201 = t197 - t199;
        const V x0r = io.re(0);
        const V t202 = part<0>(t64);
        // spectrum block of 37
        const V t203 = c[43] * t202;
        const V t204 = x0r - t203;
        const P t205 = shuffled<1, 0>(t173);
        const P t206 = c[9] * t205;
        const P t207 = P(c[10], -c[10]) * t173;
        const P t208 = t206 + t207;
        const P t209 = shuffled<1, 3>(t97, t96);
        const P t210 = c[11] * t209;
        const P t211 = shuffled<1, 0>(t209);
        const P t212 = P(c[12], -c[12]) * t211;
        const P t213 = t210 + t212;
        const P t214 = c[13] * t194;
        const P t215 = shuffled<1, 0>(t194);
        const P t216 = P(c[14], -c[14]) * t215;
        const P t217 = t214 + t216;
        const P t218 = shuffled<0, 2>(t85, t87);
        const P t219 = c[15] * t218;
        const P t220 = shuffled<1, 0>(t218);
        const P t221 = P(-c[16], c[16]) * t220;
        const P t222 = t219 + t221;
        const P t223 = c[17] * t176;
        const P t224 = shuffled<1, 0>(t176);
        const P t225 = P(-c[18], c[18]) * t224;
        const P t226 = t223 + t225;
        const P t227 = c[19] * t178;
        const P t228 = shuffled<1, 0>(t178);
        const P t229 = P(c[20], -c[20]) * t228;
        const P t230 = t227 + t229;
        const P t231 = shuffled<0, 2>(t95, t93);
        const P t232 = c[21] * t231;
        const P t233 = shuffled<1, 0>(t231);
        const P t234 = P(c[22], -c[22]) * t233;
        const P t235 = t232 + t234;
        const P t236 = P(-c[23], c[23]) * t201;
        const P t237 = shuffled<1, 0>(t201);
        const P t238 = c[24] * t237;
        const P t239 = t236 + t238;
        const P t240 = shuffled<1, 3>(t95, t93);
        const P t241 = c[25] * t240;
        const P t242 = shuffled<1, 0>(t240);
        const P t243 = P(c[26], -c[26]) * t242;
        const P t244 = t241 + t243;
        const P t245 = c[27] * t177;
        const P t246 = shuffled<1, 0>(t177);
        const P t247 = P(c[28], -c[28]) * t246;
        const P t248 = t245 + t247;
        // real block of 3, multiplier 2
        const P t249 = c[1] * t63;
        const P t250 = shuffled<0, 3>(t66, t249);
        // spectrum block of 37
        const P t251 = P(c[44], c[45]) * t250;
        const P t252 = shuffled<0, 3>(t249, t66);
        const P t253 = P(c[46], -c[47]) * t252;
        const P t254 = t251 + t253;
        const P t255 = shuffled<1, 0>(t175);
        const P t256 = c[29] * t255;
        const P t257 = P(c[30], -c[30]) * t175;
        const P t258 = t256 + t257;
        const P t259 = shuffled<1, 3>(t87, t85);
        const P t260 = c[31] * t259;
        const P t261 = shuffled<1, 0>(t259);
        const P t262 = P(c[32], -c[32]) * t261;
        const P t263 = t260 + t262;
        const P t264 = c[33] * t200;
        const P t265 = shuffled<1, 0>(t200);
        const P t266 = P(-c[34], c[34]) * t265;
        const P t267 = t264 + t266;
        const P t268 = shuffled<0, 2>(t96, t97);
        const P t269 = c[35] * t268;
        const P t270 = shuffled<1, 0>(t268);
        const P t271 = P(-c[36], c[36]) * t270;
        const P t272 = t269 + t271;
        const P t273 = c[37] * t174;
        const P t274 = shuffled<1, 0>(t174);
        const P t275 = P(c[38], -c[38]) * t274;
        const P t276 = t273 + t275;
        const P t277 = flipped<1, 0>(t217);
        // complex block of 3
        const P t278 = t267 + t277;
        const P t279 = flipped<0, 1>(t267);
        const P t280 = t217 + t279;
        const P t281 = flipped<0, 1>(t278);
        const P t282 = t239 + t281;
        const P t283 = P(-c[0], c[0]) * t278;
        const P t284 = t283 + t239;
        const P t285 = P(c[1], -c[1]) * t280;
        const P t286 = shuffled<1, 0>(t285);
        const P t287 = t284 + t286;
        const P t288 = t284 - t286;
        const P t289 = flipped<0, 1>(t248);
        // complex block of 3
        const P t290 = t208 + t289;
        const P t291 = t208 - t289;
        const P t292 = t290 + t258;
        const P t293 = flipped<1, 0>(t258);
        const P t294 = P(c[0], -c[0]) * t290;
        const P t295 = t293 + t294;
        const P t296 = c[1] * t291;
        const P t297 = shuffled<1, 0>(t296);
        const P t298 = t295 + t297;
        const P t299 = t295 - t297;
        // complex block of 3
        const P t300 = t230 + t226;
        const P t301 = shuffled<0, 3>(t230, t226);
        const P t302 = shuffled<0, 3>(t226, t230);
        const P t303 = t301 - t302;
        const P t304 = shuffled<0, 3>(t300, t276);
        const P t305 = shuffled<0, 3>(t276, t300);
        const P t306 = t304 - t305;
        const P t307 = c[0] * t300;
        const P t308 = t307 + t276;
        const P t309 = c[1] * t303;
        const P t310 = shuffled<1, 0>(t309);
        const P t311 = t308 + t310;
        const P t312 = shuffled<0, 3>(t310, t308);
        const P t313 = shuffled<0, 3>(t308, t310);
        const P t314 = t312 - t313;
        const P t315 = flipped<1, 0>(t292);
        // complex block of 3
        const P t316 = t315 + t306;
        const P t317 = flipped<0, 1>(t306);
        const P t318 = t292 + t317;
        const P t319 = t316 + t282;
        const P t320 = c[0] * t316;
        const P t321 = t282 - t320;
        const P t322 = c[1] * t318;
        const P t323 = shuffled<1, 0>(t322);
        const P t324 = t321 - t323;
        const P t325 = t321 + t323;
        const P t326 = shuffled<1, 0>(t298);
        // complex block of 9, multiplier 4
        const P t327 = c[3] * t326;
        const P t328 = P(c[4], -c[4]) * t298;
        const P t329 = t327 + t328;
        const P t330 = P(-c[5], c[5]) * t311;
        const P t331 = shuffled<1, 0>(t311);
        const P t332 = c[6] * t331;
        const P t333 = t330 + t332;
        const P t334 = flipped<1, 0>(t329);
        // complex block of 3
        const P t335 = t334 + t333;
        const P t336 = flipped<0, 1>(t333);
        const P t337 = t329 + t336;
        const P t338 = t335 + t287;
        const P t339 = c[0] * t335;
        const P t340 = t287 - t339;
        const P t341 = c[1] * t337;
        const P t342 = shuffled<1, 0>(t341);
        const P t343 = t340 - t342;
        const P t344 = t340 + t342;
        // complex block of 9, multiplier 4
        const P t345 = c[5] * t299;
        const P t346 = shuffled<1, 0>(t299);
        const P t347 = P(c[6], -c[6]) * t346;
        const P t348 = t345 + t347;
        const P t349 = c[7] * t314;
        const P t350 = shuffled<1, 0>(t314);
        const P t351 = P(c[8], -c[8]) * t350;
        const P t352 = t349 + t351;
        // complex block of 3
        const P t353 = t348 + t352;
        const P t354 = t348 - t352;
        const P t355 = t353 + t288;
        const P t356 = c[0] * t353;
        const P t357 = t288 - t356;
        const P t358 = P(c[1], -c[1]) * t354;
        const P t359 = shuffled<1, 0>(t358);
        const P t360 = t357 + t359;
        const P t361 = t357 - t359;
        const V t362 = part<1>(t64);
        // spectrum block of 37
        const V t363 = c[48] * t362;
        const P t364 = joined(t204, t363);
        // spectrum block of 3
        const P t365 = t254 + t364;
        const P t366 = c[0] * t254;
        const P t367 = t364 - t366;
        const P t368 = P(c[49], c[50]) * t249;
        const P t369 = P(-c[51], c[52]) * t66;
        const P t370 = t368 + t369;
        const P t371 = flipped<1, 0>(t370);
        const P t372 = t367 + t371;
        const P t373 = t367 - t371;
        const P t374 = shuffled<1, 3>(t272, t244);
        const P t375 = shuffled<1, 3>(t235, t213);
        // complex block of 3
        const P t376 = t374 - t375;
        const P t377 = shuffled<0, 2>(t272, t213);
        const P t378 = shuffled<0, 2>(t235, t244);
        const P t379 = flipped<0, 1>(t378);
        const P t380 = t377 + t379;
        const P t381 = t375 + t374;
        const P t382 = t377 - t379;
        const P t383 = shuffled<1, 3>(t222, t263);
        const P t384 = flipped<0, 1>(t383);
        const P t385 = t376 + t384;
        const P t386 = shuffled<0, 2>(t222, t263);
        const P t387 = t380 + t386;
        const P t388 = P(-c[0], c[0]) * t376;
        const P t389 = t383 + t388;
        const P t390 = c[0] * t380;
        const P t391 = t386 - t390;
        const P t392 = c[1] * t382;
        const P t393 = flipped<0, 1>(t389);
        const P t394 = t392 + t393;
        const P t395 = P(-c[1], c[1]) * t381;
        const P t396 = t391 + t395;
        const P t397 = flipped<1, 0>(t392);
        const P t398 = t389 + t397;
        const P t399 = t391 - t395;
        // spectrum block of 9, multiplier 4
        const P t400 = c[4] * t396;
        const P t401 = c[3] * t394;
        const P t402 = t400 + t401;
        const P t403 = c[5] * t399;
        const P t404 = P(c[6], -c[6]) * t398;
        const P t405 = t403 + t404;
        // spectrum block of 3
        const P t406 = t387 + t365;
        const P t407 = c[0] * t387;
        const P t408 = t365 - t407;
        const P t409 = c[1] * t385;
        const P t410 = t408 - t409;
        const P t411 = t408 + t409;
        // spectrum block of 3
        const P t412 = t372 - t402;
        const P t413 = c[0] * t402;
        const P t414 = t413 + t372;
        const P t415 = c[39] * t396;
        const P t416 = c[40] * t394;
        const P t417 = t415 - t416;
        const P t418 = t414 - t417;
        const P t419 = t414 + t417;
        // spectrum block of 3
        const P t420 = t405 + t373;
        const P t421 = c[0] * t405;
        const P t422 = t373 - t421;
        const P t423 = c[41] * t398;
        const P t424 = P(-c[42], c[42]) * t399;
        const P t425 = t423 + t424;
        const P t426 = flipped<1, 0>(t425);
        const P t427 = t422 + t426;
        const P t428 = t422 - t426;
        const P t429 = shuffled<0, 2>(t406, t412);
        const P t430 = shuffled<1, 3>(t406, t412);
        // spectrum block of 2
        const P t431 = t429 + t430;
        const P t432 = t429 - t430;
        const P t433 = shuffled<0, 2>(t319, t338);
        // spectrum block of 2
        const P t434 = t431 + t433;
        io.out(1, 7, t434);
        const P t435 = t431 - t433;
        io.out(36, 30, t435);
        const P t436 = shuffled<1, 3>(t319, t338);
        // spectrum block of 2
        const P t437 = t432 - t436;
        io.out(6, 5, t437);
        const P t438 = t432 + t436;
        io.out(31, 32, t438);
        const P t439 = shuffled<0, 2>(t420, t410);
        const P t440 = shuffled<1, 3>(t420, t410);
        // spectrum block of 2
        const P t441 = t439 + t440;
        const P t442 = t439 - t440;
        const P t443 = shuffled<0, 2>(t355, t324);
        // spectrum block of 2
        const P t444 = t441 + t443;
        io.out(12, 10, t444);
        const P t445 = t441 - t443;
        io.out(25, 27, t445);
        const P t446 = shuffled<1, 3>(t355, t324);
        // spectrum block of 2
        const P t447 = t442 - t446;
        io.out(35, 23, t447);
        const P t448 = t442 + t446;
        io.out(2, 14, t448);
        const P t449 = shuffled<0, 2>(t418, t427);
        const P t450 = shuffled<1, 3>(t418, t427);
        // spectrum block of 2
        const P t451 = t449 + t450;
        const P t452 = t449 - t450;
        const P t453 = shuffled<0, 2>(t343, t360);
        // spectrum block of 2
        const P t454 = t451 + t453;
        io.out(33, 9, t454);
        const P t455 = t451 - t453;
        io.out(4, 28, t455);
        const P t456 = shuffled<1, 3>(t343, t360);
        // spectrum block of 2
        const P t457 = t452 - t456;
        io.out(13, 17, t457);
        const P t458 = t452 + t456;
        io.out(24, 20, t458);
        const P t459 = shuffled<0, 2>(t411, t419);
        const P t460 = shuffled<1, 3>(t411, t419);
        // spectrum block of 2
        const P t461 = t459 + t460;
        const P t462 = t459 - t460;
        const P t463 = shuffled<0, 2>(t325, t344);
        // spectrum block of 2
        const P t464 = t461 + t463;
        io.out(26, 34, t464);
        const P t465 = t461 - t463;
        io.out(11, 3, t465);
        const P t466 = shuffled<1, 3>(t325, t344);
        // spectrum block of 2
        const P t467 = t462 - t466;
        io.out(8, 19, t467);
        const P t468 = t462 + t466;
        io.out(29, 18, t468);
        const V t469 = part<0>(t428);
        const V t470 = part<1>(t428);
        // spectrum block of 2
        const V t471 = t469 + t470;
        const V t472 = t469 - t470;
        const P t473 = joined(t471, t472);
        const P t474 = flipped<0, 1>(t361);
        // spectrum block of 2
        const P t475 = t473 + t474;
        io.out(16, 22, t475);
        const P t476 = t473 - t474;
        io.out(21, 15, t476);
        // spectrum block of 37
        const V t477 = x0r + t202;
        io.out(0, t477);
    }
};

}  // namespace zulg
