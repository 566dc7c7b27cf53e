// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 37.
// Hartley transform of 37 points, form I; two lanes to a register.
// 135 sums, 87 differences, 119 products of registers, which do the 711 steps of the graph, those with
// `scale` included; 113 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<37> {
    static constexpr int steps = 711;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.3420201433256687,  // c[2]: sin 2 pi 4/9
        0.9396926207859084,  // c[3]: -cos 2 pi 4/9
        0.766044443118978,  // c[4]: cos 2 pi 4/36
        0.6427876096865394,  // c[5]: sin 2 pi 4/36
        0.17364817766693036,  // c[6]: cos 2 pi 2/9
        0.984807753012208,  // c[7]: sin 2 pi 2/9
        0.29019472587628237,  // c[8]: P[1] of 37
        0.1731604803001738,  // c[9]: -Q[1] of 37
        0.27801178968802176,  // c[10]: Q[2] of 37
        0.19211188317920547,  // c[11]: P[2] of 37
        0.10832934393017396,  // c[12]: -Q[3] of 37
        0.3200973041246296,  // c[13]: -P[3] of 37
        0.3103516055691282,  // c[14]: P[4] of 37
        0.13371391769319224,  // c[15]: Q[4] of 37
        0.2349547827807796,  // c[16]: Q[5] of 37
        0.24288635390370164,  // c[17]: -P[5] of 37
        0.22329890434335598,  // c[18]: Q[7] of 37
        0.25364370716273305,  // c[19]: -P[7] of 37
        0.2338246809597342,  // c[20]: Q[8] of 37
        0.24397448521981976,  // c[21]: P[8] of 37
        0.2578482977363278,  // c[22]: -Q[9] of 37
        0.21843027770589768,  // c[23]: P[9] of 37
        0.25216731301218065,  // c[24]: Q[10] of 37
        0.22496483527968195,  // c[25]: -P[10] of 37
        0.2870996561549517,  // c[26]: -Q[11] of 37
        0.1782451073659696,  // c[27]: -P[11] of 37
        0.3301590368394409,  // c[28]: P[13] of 37
        0.07205928987611672,  // c[29]: -Q[13] of 37
        0.2912479292396942,  // c[30]: Q[14] of 37
        0.17138312220807392,  // c[31]: P[14] of 37
        0.2979328013860101,  // c[32]: Q[15] of 37
        0.15947907926271018,  // c[33]: P[15] of 37
        0.10416787634306994,  // c[34]: P[16] of 37
        0.32147563578344845,  // c[35]: Q[16] of 37
        0.026690240834250763,  // c[36]: -Q[17] of 37
        0.3368755881752301,  // c[37]: -P[17] of 37
        0.29619813272602386,  // c[38]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[39]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.6634139481689384,  // c[40]: -sin 2 pi 2/3 times cos 2 pi 4/36
        0.5566703992264194,  // c[41]: -sin 2 pi 2/3 times sin 2 pi 4/36
        0.027777777777777776,  // c[42]: 1/36
        0.12424540759822993,  // c[43]: P[12] of 37
        0.3290788923998385,  // c[44]: Q[6] of 37
        0.3142620078134601,  // c[45]: -Q[12] of 37
        0.07684148255397624,  // c[46]: -P[6] of 37
        0.1689656258416172,  // c[47]: beta of 37
        0.10759967928361923,  // c[48]: -sin 2 pi 2/3 times P[12] of 37
        0.06654667595620217,  // c[49]: -sin 2 pi 2/3 times -P[6] of 37
        0.2721588822107602,  // c[50]: -sin 2 pi 2/3 times -Q[12] of 37
        0.284990680667506,  // c[51]: -sin 2 pi 2/3 times Q[6] of 37
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x36_35 = io.in(36, 35);
        // input stage
        const P t0 = x1_2 + x36_35;
        const P t1 = x1_2 - x36_35;
        const P x3_4 = io.in(3, 4);
        const P x34_33 = io.in(34, 33);
        const P t2 = x3_4 + x34_33;
        const P t3 = x3_4 - x34_33;
        const P x5_6 = io.in(5, 6);
        const P x32_31 = io.in(32, 31);
        const P t4 = x5_6 + x32_31;
        const P t5 = x5_6 - x32_31;
        const P x7_8 = io.in(7, 8);
        const P x30_29 = io.in(30, 29);
        const P t6 = x7_8 + x30_29;
        const P t7 = x7_8 - x30_29;
        const P x9_10 = io.in(9, 10);
        const P x28_27 = io.in(28, 27);
        const P t8 = x9_10 + x28_27;
        const P t9 = x9_10 - x28_27;
        const P x11_12 = io.in(11, 12);
        const P x26_25 = io.in(26, 25);
        const P t10 = x11_12 + x26_25;
        const P t11 = x11_12 - x26_25;
        const P x13_14 = io.in(13, 14);
        const P x24_23 = io.in(24, 23);
        const P t12 = x13_14 + x24_23;
        const P t13 = x13_14 - x24_23;
        const P x15_16 = io.in(15, 16);
        const P x22_21 = io.in(22, 21);
        const P t14 = x15_16 + x22_21;
        const P t15 = x15_16 - x22_21;
        const P x17_18 = io.in(17, 18);
        const P x20_19 = io.in(20, 19);
        const P t16 = x17_18 + x20_19;
        const P t17 = x17_18 - x20_19;
        const P t18 = shuffled<0, 3>(t0, t2);
        const P t19 = shuffled<1, 2>(t4, t12);
        // real block of 2
        const P t20 = t18 + t19;
        const P t21 = t18 - t19;
        const P t22 = shuffled<1, 3>(t14, t8);
        const P t23 = shuffled<0, 3>(t14, t12);
        // real block of 2
        const P t24 = t22 + t23;
        const P t25 = t22 - t23;
        const P t26 = shuffled<0, 3>(t2, t10);
        const P t27 = shuffled<1, 3>(t16, t0);
        // real block of 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P t30 = shuffled<0, 2>(t10, t6);
        const P t31 = shuffled<1, 2>(t6, t4);
        // real block of 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const V t34 = part<0>(t8);
        const V t35 = part<0>(t16);
        // real block of 2
        const V t36 = t34 + t35;
        const V t37 = t34 - t35;
        const P t38 = shuffled<1, 3>(t24, t25);
        const P t39 = shuffled<0, 2>(t32, t33);
        // real block of 3, multiplier 2
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = shuffled<0, 2>(t20, t21);
        const P t43 = t40 + t42;
        const P t44 = c[0] * t40;
        const P t45 = t42 - t44;
        const P t46 = shuffled<0, 2>(t28, t29);
        const P t47 = shuffled<1, 3>(t32, t33);
        // real block of 3, multiplier 2
        const P t48 = t46 + t47;
        const P t49 = t46 - t47;
        const P t50 = shuffled<1, 3>(t20, t21);
        const P t51 = t48 + t50;
        const P t52 = c[0] * t48;
        const P t53 = t50 - t52;
        const P t54 = shuffled<1, 3>(t28, t29);
        const P t55 = joined(t36, t37);
        // real block of 3, multiplier 2
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        const P t58 = shuffled<0, 2>(t24, t25);
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
        const P t67 = c[6] * t53;
        // real block of 3, multiplier 2
        const P t68 = c[1] * t49;
        // real block of 9, multiplier 2
        const P t69 = c[7] * t68;
        const P t70 = t67 + t69;
        const P t71 = c[6] * t68;
        const P t72 = c[7] * t53;
        const P t73 = t71 - t72;
        // real block of 3, multiplier 2
        const P t74 = c[1] * t57;
        // real block of 9, multiplier 2
        const P t75 = c[2] * t74;
        const P t76 = c[3] * t61;
        const P t77 = t75 - t76;
        const P t78 = c[3] * t74;
        const P t79 = c[2] * t61;
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
        const P t98 = shuffled<1, 2>(t9, t15);
        const P t99 = shuffled<0, 2>(t11, t17);
        // real block of 3
        const P t100 = t98 - t99;
        const P t101 = t99 + t98;
        const P t102 = t100 + t1;
        const P t103 = c[0] * t100;
        const P t104 = t1 - t103;
        const P t105 = shuffled<0, 3>(t3, t5);
        const P t106 = shuffled<0, 3>(t7, t13);
        // real block of 3
        const P t107 = t105 - t106;
        const P t108 = t105 + t106;
        const P t109 = shuffled<1, 3>(t3, t7);
        const P t110 = t107 + t109;
        const P t111 = c[0] * t107;
        const P t112 = t109 - t111;
        const P t113 = shuffled<1, 3>(t11, t17);
        const P t114 = shuffled<0, 2>(t9, t13);
        const P t115 = flipped<0, 1>(t114);
        // real block of 3
        const P t116 = t113 + t115;
        const P t117 = t113 - t115;
        const P t118 = shuffled<1, 2>(t15, t5);
        const P t119 = flipped<0, 1>(t118);
        const P t120 = t116 + t119;
        const P t121 = P(-c[0], c[0]) * t116;
        const P t122 = t118 + t121;
        // real block of 3
        const P t123 = c[1] * t101;
        const P t124 = shuffled<1, 3>(t104, t123);
        // skew block of 18
        const P t125 = c[7] * t124;
        const P t126 = shuffled<1, 0>(t124);
        const P t127 = P(-c[6], c[6]) * t126;
        const P t128 = t125 + t127;
        // real block of 3
        const P t129 = c[1] * t108;
        const P t130 = shuffled<0, 2>(t112, t129);
        // skew block of 18
        const P t131 = c[3] * t130;
        const P t132 = shuffled<1, 0>(t130);
        const P t133 = P(c[2], -c[2]) * t132;
        const P t134 = t131 + t133;
        const P t135 = shuffled<1, 3>(t112, t129);
        const P t136 = c[1] * t135;
        const P t137 = shuffled<1, 0>(t135);
        const P t138 = P(c[0], -c[0]) * t137;
        const P t139 = t136 + t138;
        // real block of 3
        const P t140 = c[1] * t117;
        const P t141 = shuffled<0, 2>(t122, t140);
        // skew block of 18
        const P t142 = c[4] * t141;
        const P t143 = shuffled<1, 0>(t141);
        const P t144 = P(c[5], -c[5]) * t143;
        const P t145 = t142 + t144;
        const P t146 = shuffled<1, 3>(t140, t122);
        const P t147 = c[4] * t146;
        const P t148 = shuffled<1, 0>(t146);
        const P t149 = P(c[5], -c[5]) * t148;
        const P t150 = t147 + t149;
        // complex block of 3, multiplier 2
        const P t151 = t134 + t145;
        const P t152 = t134 - t145;
        const P t153 = shuffled<0, 2>(t104, t123);
        const P t154 = t151 + t153;
        const P t155 = c[0] * t151;
        const P t156 = t153 - t155;
        const P t157 = P(-c[1], c[1]) * t152;
        const P t158 = shuffled<1, 0>(t157);
        const P t159 = t156 + t158;
        const P t160 = t156 - t158;
        const P t161 = shuffled<0, 3>(t128, t150);
        const P t162 = shuffled<0, 3>(t150, t128);
        // complex block of 3, multiplier 2
        const P t163 = t161 - t162;
        const P t164 = t150 + t128;
        const P t165 = t163 + t139;
        const P t166 = c[0] * t163;
        const P t167 = t139 - t166;
        const P t168 = c[1] * t164;
        const P t169 = shuffled<1, 0>(t168);
        const P t170 = t167 + t169;
        const P t171 = t167 - t169;
        // complex block of 2
        const P t172 = t154 + t165;
        const P t173 = t154 - t165;
        // complex block of 2
        const P t174 = t160 + t171;
        const P t175 = t160 - t171;
        // complex block of 2
        const P t176 = t159 + t170;
        const P t177 = t159 - t170;
        const P t178 = shuffled<1, 2>(t102, t120);
        // skew block of 6
        const P t179 = c[1] * t178;
        const P t180 = shuffled<1, 0>(t178);
        const P t181 = P(-c[0], c[0]) * t180;
        const P t182 = t179 + t181;
        const P t183 = shuffled<0, 3>(t110, t120);
        const P t184 = c[0] * t183;
        const P t185 = shuffled<1, 0>(t183);
        const P t186 = P(-c[1], c[1]) * t185;
        const P t187 = t184 + t186;
        // complex block of 3
        const P t188 = t182 + t187;
        const P t189 = shuffled<0, 3>(t182, t187);
        const P t190 = shuffled<0, 3>(t187, t182);
        const P t191 = t189 - t190;
        const P t192 = shuffled<0, 3>(t102, t110);
        const P t193 = t188 + t192;
        const P t194 = P(-c[0], c[0]) * t188;
        const P t195 = flipped<0, 1>(t192);
        const P t196 = t194 + t195;
        const P t197 = P(-c[1], c[1]) * t191;
        const P t198 = shuffled<1, 0>(t197);
        const P t199 = t196 + t198;
        const P t200 = t196 - t198;
        const V x0 = io.in(0);
        const V t201 = part<0>(t64);
        // spectrum block of 37
        const V t202 = c[42] * t201;
        const V t203 = x0 - t202;
        const P t204 = shuffled<1, 0>(t172);
        const P t205 = c[8] * t204;
        const P t206 = P(c[9], -c[9]) * t172;
        const P t207 = t205 + t206;
        const P t208 = shuffled<1, 3>(t97, t96);
        const P t209 = c[10] * t208;
        const P t210 = shuffled<1, 0>(t208);
        const P t211 = P(c[11], -c[11]) * t210;
        const P t212 = t209 + t211;
        const P t213 = c[12] * t193;
        const P t214 = shuffled<1, 0>(t193);
        const P t215 = P(c[13], -c[13]) * t214;
        const P t216 = t213 + t215;
        const P t217 = shuffled<0, 2>(t85, t87);
        const P t218 = c[14] * t217;
        const P t219 = shuffled<1, 0>(t217);
        const P t220 = P(-c[15], c[15]) * t219;
        const P t221 = t218 + t220;
        const P t222 = c[16] * t175;
        const P t223 = shuffled<1, 0>(t175);
        const P t224 = P(-c[17], c[17]) * t223;
        const P t225 = t222 + t224;
        const P t226 = c[18] * t177;
        const P t227 = shuffled<1, 0>(t177);
        const P t228 = P(c[19], -c[19]) * t227;
        const P t229 = t226 + t228;
        const P t230 = shuffled<0, 2>(t95, t93);
        const P t231 = c[20] * t230;
        const P t232 = shuffled<1, 0>(t230);
        const P t233 = P(c[21], -c[21]) * t232;
        const P t234 = t231 + t233;
        const P t235 = P(-c[22], c[22]) * t200;
        const P t236 = shuffled<1, 0>(t200);
        const P t237 = c[23] * t236;
        const P t238 = t235 + t237;
        const P t239 = shuffled<1, 3>(t95, t93);
        const P t240 = c[24] * t239;
        const P t241 = shuffled<1, 0>(t239);
        const P t242 = P(c[25], -c[25]) * t241;
        const P t243 = t240 + t242;
        const P t244 = c[26] * t176;
        const P t245 = shuffled<1, 0>(t176);
        const P t246 = P(c[27], -c[27]) * t245;
        const P t247 = t244 + t246;
        // real block of 3, multiplier 2
        const P t248 = c[1] * t63;
        const P t249 = shuffled<0, 3>(t66, t248);
        // spectrum block of 37
        const P t250 = P(c[43], c[44]) * t249;
        const P t251 = shuffled<0, 3>(t248, t66);
        const P t252 = P(c[45], -c[46]) * t251;
        const P t253 = t250 + t252;
        const P t254 = shuffled<1, 0>(t174);
        const P t255 = c[28] * t254;
        const P t256 = P(c[29], -c[29]) * t174;
        const P t257 = t255 + t256;
        const P t258 = shuffled<1, 3>(t87, t85);
        const P t259 = c[30] * t258;
        const P t260 = shuffled<1, 0>(t258);
        const P t261 = P(c[31], -c[31]) * t260;
        const P t262 = t259 + t261;
        const P t263 = c[32] * t199;
        const P t264 = shuffled<1, 0>(t199);
        const P t265 = P(-c[33], c[33]) * t264;
        const P t266 = t263 + t265;
        const P t267 = shuffled<0, 2>(t96, t97);
        const P t268 = c[34] * t267;
        const P t269 = shuffled<1, 0>(t267);
        const P t270 = P(-c[35], c[35]) * t269;
        const P t271 = t268 + t270;
        const P t272 = c[36] * t173;
        const P t273 = shuffled<1, 0>(t173);
        const P t274 = P(c[37], -c[37]) * t273;
        const P t275 = t272 + t274;
        const P t276 = flipped<1, 0>(t216);
        // complex block of 3
        const P t277 = t266 + t276;
        const P t278 = flipped<0, 1>(t266);
        const P t279 = t216 + t278;
        const P t280 = flipped<0, 1>(t277);
        const P t281 = t238 + t280;
        const P t282 = P(-c[0], c[0]) * t277;
        const P t283 = t282 + t238;
        const P t284 = P(c[1], -c[1]) * t279;
        const P t285 = shuffled<1, 0>(t284);
        const P t286 = t283 + t285;
        const P t287 = t283 - t285;
        const P t288 = flipped<0, 1>(t247);
        // complex block of 3
        const P t289 = t207 + t288;
        const P t290 = t207 - t288;
        const P t291 = t289 + t257;
        const P t292 = flipped<1, 0>(t257);
        const P t293 = P(c[0], -c[0]) * t289;
        const P t294 = t292 + t293;
        const P t295 = c[1] * t290;
        const P t296 = shuffled<1, 0>(t295);
        const P t297 = t294 + t296;
        const P t298 = t294 - t296;
        // complex block of 3
        const P t299 = t229 + t225;
        const P t300 = shuffled<0, 3>(t229, t225);
        const P t301 = shuffled<0, 3>(t225, t229);
        const P t302 = t300 - t301;
        const P t303 = shuffled<0, 3>(t299, t275);
        const P t304 = shuffled<0, 3>(t275, t299);
        const P t305 = t303 - t304;
        const P t306 = c[0] * t299;
        const P t307 = t306 + t275;
        const P t308 = c[1] * t302;
        const P t309 = shuffled<1, 0>(t308);
        const P t310 = t307 + t309;
        const P t311 = shuffled<0, 3>(t309, t307);
        const P t312 = shuffled<0, 3>(t307, t309);
        const P t313 = t311 - t312;
        const P t314 = flipped<1, 0>(t291);
        // complex block of 3
        const P t315 = t314 + t305;
        const P t316 = flipped<0, 1>(t305);
        const P t317 = t291 + t316;
        const P t318 = t315 + t281;
        const P t319 = c[0] * t315;
        const P t320 = t281 - t319;
        const P t321 = c[1] * t317;
        const P t322 = shuffled<1, 0>(t321);
        const P t323 = t320 - t322;
        const P t324 = t320 + t322;
        const P t325 = shuffled<1, 0>(t297);
        // complex block of 9, multiplier 4
        const P t326 = c[2] * t325;
        const P t327 = P(c[3], -c[3]) * t297;
        const P t328 = t326 + t327;
        const P t329 = P(-c[4], c[4]) * t310;
        const P t330 = shuffled<1, 0>(t310);
        const P t331 = c[5] * t330;
        const P t332 = t329 + t331;
        const P t333 = flipped<1, 0>(t328);
        // complex block of 3
        const P t334 = t333 + t332;
        const P t335 = flipped<0, 1>(t332);
        const P t336 = t328 + t335;
        const P t337 = t334 + t286;
        const P t338 = c[0] * t334;
        const P t339 = t286 - t338;
        const P t340 = c[1] * t336;
        const P t341 = shuffled<1, 0>(t340);
        const P t342 = t339 - t341;
        const P t343 = t339 + t341;
        // complex block of 9, multiplier 4
        const P t344 = c[4] * t298;
        const P t345 = shuffled<1, 0>(t298);
        const P t346 = P(c[5], -c[5]) * t345;
        const P t347 = t344 + t346;
        const P t348 = c[6] * t313;
        const P t349 = shuffled<1, 0>(t313);
        const P t350 = P(c[7], -c[7]) * t349;
        const P t351 = t348 + t350;
        // complex block of 3
        const P t352 = t347 + t351;
        const P t353 = t347 - t351;
        const P t354 = t352 + t287;
        const P t355 = c[0] * t352;
        const P t356 = t287 - t355;
        const P t357 = P(c[1], -c[1]) * t353;
        const P t358 = shuffled<1, 0>(t357);
        const P t359 = t356 + t358;
        const P t360 = t356 - t358;
        const V t361 = part<1>(t64);
        // spectrum block of 37
        const V t362 = c[47] * t361;
        const P t363 = joined(t203, t362);
        // spectrum block of 3
        const P t364 = t253 + t363;
        const P t365 = c[0] * t253;
        const P t366 = t363 - t365;
        const P t367 = P(c[48], c[49]) * t248;
        const P t368 = P(-c[50], c[51]) * t66;
        const P t369 = t367 + t368;
        const P t370 = flipped<1, 0>(t369);
        const P t371 = t366 + t370;
        const P t372 = t366 - t370;
        const P t373 = shuffled<1, 3>(t271, t243);
        const P t374 = shuffled<1, 3>(t234, t212);
        // complex block of 3
        const P t375 = t373 - t374;
        const P t376 = shuffled<0, 2>(t271, t212);
        const P t377 = shuffled<0, 2>(t234, t243);
        const P t378 = flipped<0, 1>(t377);
        const P t379 = t376 + t378;
        const P t380 = t374 + t373;
        const P t381 = t376 - t378;
        const P t382 = shuffled<1, 3>(t221, t262);
        const P t383 = flipped<0, 1>(t382);
        const P t384 = t375 + t383;
        const P t385 = shuffled<0, 2>(t221, t262);
        const P t386 = t379 + t385;
        const P t387 = P(-c[0], c[0]) * t375;
        const P t388 = t382 + t387;
        const P t389 = c[0] * t379;
        const P t390 = t385 - t389;
        const P t391 = c[1] * t381;
        const P t392 = flipped<0, 1>(t388);
        const P t393 = t391 + t392;
        const P t394 = P(-c[1], c[1]) * t380;
        const P t395 = t390 + t394;
        const P t396 = flipped<1, 0>(t391);
        const P t397 = t388 + t396;
        const P t398 = t390 - t394;
        // spectrum block of 9, multiplier 4
        const P t399 = c[3] * t395;
        const P t400 = c[2] * t393;
        const P t401 = t399 + t400;
        const P t402 = c[4] * t398;
        const P t403 = P(c[5], -c[5]) * t397;
        const P t404 = t402 + t403;
        // spectrum block of 3
        const P t405 = t386 + t364;
        const P t406 = c[0] * t386;
        const P t407 = t364 - t406;
        const P t408 = c[1] * t384;
        const P t409 = t407 - t408;
        const P t410 = t407 + t408;
        // spectrum block of 3
        const P t411 = t371 - t401;
        const P t412 = c[0] * t401;
        const P t413 = t412 + t371;
        const P t414 = c[38] * t395;
        const P t415 = c[39] * t393;
        const P t416 = t414 - t415;
        const P t417 = t413 - t416;
        const P t418 = t413 + t416;
        // spectrum block of 3
        const P t419 = t404 + t372;
        const P t420 = c[0] * t404;
        const P t421 = t372 - t420;
        const P t422 = c[40] * t397;
        const P t423 = P(-c[41], c[41]) * t398;
        const P t424 = t422 + t423;
        const P t425 = flipped<1, 0>(t424);
        const P t426 = t421 + t425;
        const P t427 = t421 - t425;
        const P t428 = shuffled<0, 2>(t405, t411);
        const P t429 = shuffled<1, 3>(t405, t411);
        // spectrum block of 2
        const P t430 = t428 + t429;
        const P t431 = t428 - t429;
        const P t432 = shuffled<0, 2>(t318, t337);
        // spectrum block of 2
        const P t433 = t430 + t432;
        io.out(36, 30, t433);
        const P t434 = t430 - t432;
        io.out(1, 7, t434);
        const P t435 = shuffled<1, 3>(t318, t337);
        // spectrum block of 2
        const P t436 = t431 - t435;
        io.out(31, 32, t436);
        const P t437 = t431 + t435;
        io.out(6, 5, t437);
        const P t438 = shuffled<0, 2>(t419, t409);
        const P t439 = shuffled<1, 3>(t419, t409);
        // spectrum block of 2
        const P t440 = t438 + t439;
        const P t441 = t438 - t439;
        const P t442 = shuffled<0, 2>(t354, t323);
        // spectrum block of 2
        const P t443 = t440 + t442;
        io.out(25, 27, t443);
        const P t444 = t440 - t442;
        io.out(12, 10, t444);
        const P t445 = shuffled<1, 3>(t354, t323);
        // spectrum block of 2
        const P t446 = t441 - t445;
        io.out(2, 14, t446);
        const P t447 = t441 + t445;
        io.out(35, 23, t447);
        const P t448 = shuffled<0, 2>(t417, t426);
        const P t449 = shuffled<1, 3>(t417, t426);
        // spectrum block of 2
        const P t450 = t448 + t449;
        const P t451 = t448 - t449;
        const P t452 = shuffled<0, 2>(t342, t359);
        // spectrum block of 2
        const P t453 = t450 + t452;
        io.out(4, 28, t453);
        const P t454 = t450 - t452;
        io.out(33, 9, t454);
        const P t455 = shuffled<1, 3>(t342, t359);
        // spectrum block of 2
        const P t456 = t451 - t455;
        io.out(24, 20, t456);
        const P t457 = t451 + t455;
        io.out(13, 17, t457);
        const P t458 = shuffled<0, 2>(t410, t418);
        const P t459 = shuffled<1, 3>(t410, t418);
        // spectrum block of 2
        const P t460 = t458 + t459;
        const P t461 = t458 - t459;
        const P t462 = shuffled<0, 2>(t324, t343);
        // spectrum block of 2
        const P t463 = t460 + t462;
        io.out(11, 3, t463);
        const P t464 = t460 - t462;
        io.out(26, 34, t464);
        const P t465 = shuffled<1, 3>(t324, t343);
        // spectrum block of 2
        const P t466 = t461 - t465;
        io.out(29, 18, t466);
        const P t467 = t461 + t465;
        io.out(8, 19, t467);
        const V t468 = part<0>(t427);
        const V t469 = part<1>(t427);
        // spectrum block of 2
        const V t470 = t468 + t469;
        const V t471 = t468 - t469;
        const P t472 = joined(t470, t471);
        const P t473 = flipped<0, 1>(t360);
        // spectrum block of 2
        const P t474 = t472 + t473;
        io.out(21, 15, t474);
        const P t475 = t472 - t473;
        io.out(16, 22, t475);
        // spectrum block of 37
        const V t476 = x0 + t201;
        io.out(0, t476);
    }
};

}  // namespace zulg
