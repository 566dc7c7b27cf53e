// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 41.
// Complex DFT of 41 points, Rader block; two lines of a stage to a register.
// 162 sums, 132 differences, 134 products of registers, which do the 1494 steps of the graph, those with
// `scale` included; 131 shuffles, 22 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<41> {
    static constexpr int steps = 1494;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 9/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: -sin 2 pi 9/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
        0.08921572340206974,  // c[5]: P[8] of 41
        0.3174404534558256,  // c[6]: P[4] of 41
        0.3074744781243565,  // c[7]: Q[8] of 41
        0.04161199958857812,  // c[8]: Q[4] of 41
        0.3186016615741431,  // c[9]: P[16] of 41
        0.2710001778953512,  // c[10]: -P[12] of 41
        0.03151160488130023,  // c[11]: Q[16] of 41
        0.17046672279564715,  // c[12]: -Q[12] of 41
        0.2620989421184033,  // c[13]: -P[1] of 41
        0.1838590344269595,  // c[14]: Q[1] of 41
        0.05419385685994486,  // c[15]: -Q[9] of 41
        0.3155360928303509,  // c[16]: -P[9] of 41
        0.026176684051836208,  // c[17]: -P[7] of 41
        0.31908428543576123,  // c[18]: -Q[7] of 41
        0.2399755958777195,  // c[19]: P[17] of 41
        0.21192383863816136,  // c[20]: -Q[17] of 41
        0.3192532441835867,  // c[21]: P[15] of 41
        0.024028443109264917,  // c[22]: Q[15] of 41
        0.30823256046522535,  // c[23]: Q[3] of 41
        0.29985325557547343,  // c[24]: P[2] of 41
        0.08656031809698493,  // c[25]: -P[3] of 41
        0.11219636857220389,  // c[26]: Q[2] of 41
        0.27149319974882274,  // c[27]: Q[13] of 41
        0.24179459418352547,  // c[28]: -Q[18] of 41
        0.16968041280638677,  // c[29]: -P[13] of 41
        0.20984607269049432,  // c[30]: -P[18] of 41
        0.2933028207344136,  // c[31]: Q[5] of 41
        0.10597392847320843,  // c[32]: -P[10] of 41
        0.12834895928380738,  // c[33]: -P[5] of 41
        0.30210846807720454,  // c[34]: -Q[10] of 41
        0.3116869402744416,  // c[35]: P[11] of 41
        0.31967734584865853,  // c[36]: P[6] of 41
        0.0731522471449556,  // c[37]: -Q[11] of 41
        0.017504129545828598,  // c[38]: -Q[6] of 41
        0.26991254618698857,  // c[39]: -Q[19] of 41
        0.09523405704741086,  // c[40]: P[14] of 41
        0.17218367347358104,  // c[41]: -P[19] of 41
        0.30566398933844086,  // c[42]: Q[14] of 41
        0.025,  // c[43]: 1/40
        0.16007810593582122,  // c[44]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x1_10 = io.pairs(1, 10);
        const Q x40_31 = io.pairs(40, 31);
        // real block of 2
        const Q t0 = x1_10 + x40_31;
        const Q x32_33 = io.pairs(32, 33);
        const Q x9_8 = io.pairs(9, 8);
        // real block of 2
        const Q t1 = x32_33 + x9_8;
        // real block of 2
        const Q t2 = x1_10 - x40_31;
        // real block of 2
        const Q t3 = x32_33 - x9_8;
        // real block of 2
        const Q t4 = t0 + t1;
        const Q t5 = t0 - t1;
        const Q x3_30 = io.pairs(3, 30);
        const Q x38_11 = io.pairs(38, 11);
        // real block of 2
        const Q t6 = x3_30 + x38_11;
        const Q t7 = x3_30 - x38_11;
        const Q x27_24 = io.pairs(27, 24);
        const Q x14_17 = io.pairs(14, 17);
        // real block of 2
        const Q t8 = x27_24 + x14_17;
        const Q t9 = x27_24 - x14_17;
        // real block of 2
        const Q t10 = t8 + t6;
        const Q t11 = t8 - t6;
        // skew block of 4, multiplier 5
        const Q t12 = t9 - t7;
        const Q t13 = t9 + t7;
        const Q x37_15 = io.pairs(37, 15);
        const Q x4_26 = io.pairs(4, 26);
        // real block of 2
        const Q t14 = x37_15 + x4_26;
        const Q t15 = x37_15 - x4_26;
        const Q x36_29 = io.pairs(36, 29);
        const Q x5_12 = io.pairs(5, 12);
        // real block of 2
        const Q t16 = x36_29 + x5_12;
        const Q t17 = x36_29 - x5_12;
        // real block of 2
        const Q t18 = t14 + t16;
        const Q t19 = t14 - t16;
        const P t20 = part<1>(t15);
        const P t21 = part<1>(t17);
        // skew block of 4, multiplier 5
        const P t22 = t20 - t21;
        const P t23 = t20 + t21;
        // real block of 2
        const Q t24 = t4 + t10;
        const Q t25 = t4 - t10;
        const P t26 = part<0>(t18);
        const P t27 = part<1>(t18);
        // real block of 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const Q t30 = shuffled<2, 3, 6, 7>(t24, t25);
        const Q t31 = joined(t28, t29);
        // real block of 5, multiplier 3
        const Q t32 = t30 + t31;
        // skew block of 4, multiplier 5
        const Q t33 = c[4] * t12;
        const Q t34 = t2 + t33;
        const Q t35 = t2 - t33;
        const P t36 = part<0>(t15);
        // skew block of 4, multiplier 5
        const P t37 = c[4] * t22;
        const P t38 = t36 + t37;
        const P t39 = t36 - t37;
        const Q t40 = shuffled<2, 3, 6, 7>(t35, t34);
        const Q t41 = joined(t39, t38);
        // complex block of 5, multiplier 3
        const Q t42 = t40 + t41;
        // skew block of 4, multiplier 5
        const Q t43 = c[4] * t13;
        const Q t44 = t43 - t3;
        const Q t45 = t3 + t43;
        // skew block of 4, multiplier 5
        const P t46 = c[4] * t23;
        const P t47 = part<0>(t17);
        const P t48 = t46 - t47;
        const P t49 = t47 + t46;
        const Q t50 = shuffled<2, 3, 6, 7>(t44, t45);
        const Q t51 = joined(t48, t49);
        // complex block of 5, multiplier 3
        const Q t52 = t50 + t51;
        const P t53 = part<1>(t5);
        const P t54 = part<0>(t19);
        // complex block of 5, multiplier 3
        const P t55 = t53 + t54;
        const P t56 = part<1>(t11);
        const P t57 = part<1>(t19);
        const P t58 = t56 + t57;
        const P t59 = t53 - t54;
        const P t60 = t57 - t56;
        const Q x2_20 = io.pairs(2, 20);
        const Q x39_21 = io.pairs(39, 21);
        // real block of 2
        const Q t61 = x2_20 + x39_21;
        const Q x18_16 = io.pairs(18, 16);
        const Q x23_25 = io.pairs(23, 25);
        // real block of 2
        const Q t62 = x18_16 + x23_25;
        const Q t63 = x18_16 - x23_25;
        // real block of 2
        const Q t64 = x2_20 - x39_21;
        // real block of 2
        const Q t65 = t62 + t61;
        const Q t66 = t62 - t61;
        const Q x35_22 = io.pairs(35, 22);
        const Q x6_19 = io.pairs(6, 19);
        // real block of 2
        const Q t67 = x35_22 + x6_19;
        const Q t68 = x35_22 - x6_19;
        const Q x13_7 = io.pairs(13, 7);
        const Q x28_34 = io.pairs(28, 34);
        // real block of 2
        const Q t69 = x13_7 + x28_34;
        const Q t70 = x13_7 - x28_34;
        // real block of 2
        const Q t71 = t67 + t69;
        const Q t72 = t67 - t69;
        // skew block of 4, multiplier 5
        const Q t73 = t68 - t70;
        const Q t74 = t68 + t70;
        // real block of 2
        const Q t75 = t65 + t71;
        const Q t76 = t65 - t71;
        const Q t77 = shuffled<2, 3, 6, 7>(t75, t76);
        const Q t78 = shuffled<0, 1, 4, 5>(t75, t76);
        // real block of 5, multiplier 3
        const Q t79 = t77 + t78;
        // skew block of 4, multiplier 5
        const Q t80 = c[4] * t73;
        const Q t81 = t63 + t80;
        const Q t82 = t63 - t80;
        const Q t83 = shuffled<2, 3, 6, 7>(t82, t81);
        const Q t84 = shuffled<0, 1, 4, 5>(t82, t81);
        // complex block of 5, multiplier 3
        const Q t85 = t83 + t84;
        // skew block of 4, multiplier 5
        const Q t86 = c[4] * t74;
        const Q t87 = t86 - t64;
        const Q t88 = t64 + t86;
        const Q t89 = shuffled<2, 3, 6, 7>(t87, t88);
        const Q t90 = shuffled<0, 1, 4, 5>(t87, t88);
        // complex block of 5, multiplier 3
        const Q t91 = t89 + t90;
        const P t92 = part<1>(t66);
        const P t93 = part<0>(t66);
        // complex block of 5, multiplier 3
        const P t94 = t92 + t93;
        const P t95 = part<1>(t72);
        const P t96 = part<0>(t72);
        const P t97 = t95 + t96;
        const P t98 = t92 - t93;
        const P t99 = t96 - t95;
        const P t100 = t55 + t94;
        const P t101 = part<0>(t5);
        const P t102 = t100 + t101;
        const P t103 = t58 + t97;
        const P t104 = part<0>(t11);
        const P t105 = t103 + t104;
        // complex block of 5, multiplier 3
        const Q t106 = t42 + t85;
        const Q t107 = shuffled<0, 1, 4, 5>(t35, t34);
        const Q t108 = t106 + t107;
        const Q t109 = t52 + t91;
        const Q t110 = shuffled<0, 1, 4, 5>(t44, t45);
        const Q t111 = t109 + t110;
        // complex block of 5, multiplier 3
        const P t112 = c[0] * t55;
        const P t113 = c[1] * t94;
        const P t114 = t112 - t113;
        const P t115 = t114 + t101;
        const P t116 = c[0] * t58;
        const P t117 = t104 + t116;
        const P t118 = c[1] * t97;
        const P t119 = t118 - t117;
        const P t120 = c[2] * t59;
        const P t121 = c[3] * t98;
        const P t122 = t120 - t121;
        const P t123 = c[2] * t60;
        const P t124 = c[3] * t99;
        const P t125 = t123 - t124;
        const P t126 = c[1] * t55;
        const P t127 = t101 - t126;
        const P t128 = c[0] * t94;
        const P t129 = t127 + t128;
        const P t130 = c[1] * t58;
        const P t131 = c[0] * t97;
        const P t132 = t130 - t131;
        const P t133 = t132 - t104;
        const P t134 = c[3] * t59;
        const P t135 = c[2] * t98;
        const P t136 = t134 + t135;
        const P t137 = c[3] * t60;
        const P t138 = c[2] * t99;
        const P t139 = t137 + t138;
        // complex block of 5, multiplier 3
        const Q t140 = t40 - t41;
        const Q t141 = t83 - t84;
        const Q t142 = c[2] * t140;
        const Q t143 = c[3] * t141;
        const Q t144 = t142 - t143;
        const Q t145 = c[3] * t140;
        const Q t146 = c[2] * t141;
        const Q t147 = t145 + t146;
        const Q t148 = t50 - t51;
        const Q t149 = t89 - t90;
        const Q t150 = c[2] * t148;
        const Q t151 = c[3] * t149;
        const Q t152 = t150 - t151;
        const Q t153 = c[3] * t148;
        const Q t154 = c[2] * t149;
        const Q t155 = t153 + t154;
        const Q t156 = c[0] * t42;
        const Q t157 = c[1] * t85;
        const Q t158 = t156 - t157;
        const Q t159 = t158 + t107;
        const Q t160 = c[0] * t52;
        const Q t161 = c[1] * t91;
        const Q t162 = t160 - t161;
        const Q t163 = t162 + t110;
        const Q t164 = c[1] * t42;
        const Q t165 = t107 - t164;
        const Q t166 = c[0] * t85;
        const Q t167 = t165 + t166;
        const Q t168 = c[1] * t52;
        const Q t169 = t110 - t168;
        const Q t170 = c[0] * t91;
        const Q t171 = t169 + t170;
        // complex block of 5, multiplier 3
        const P t172 = t115 + t125;
        const P t173 = t119 - t122;
        // complex block of 5, multiplier 3
        const Q t174 = t159 + t152;
        const Q t175 = t163 - t144;
        // complex block of 5, multiplier 3
        const P t176 = t115 - t125;
        const P t177 = t119 + t122;
        // complex block of 5, multiplier 3
        const Q t178 = t159 - t152;
        const Q t179 = t163 + t144;
        // complex block of 5, multiplier 3
        const P t180 = t129 + t139;
        const P t181 = t133 - t136;
        const P t182 = t129 - t139;
        const P t183 = t133 + t136;
        // complex block of 5, multiplier 3
        const Q t184 = t167 + t155;
        const Q t185 = t171 - t147;
        const Q t186 = t167 - t155;
        const Q t187 = t171 + t147;
        // real block of 5, multiplier 3
        const Q t188 = t30 - t31;
        const Q t189 = t77 - t78;
        const Q t190 = c[3] * t188;
        const Q t191 = c[2] * t189;
        const Q t192 = t190 + t191;
        const Q t193 = c[3] * t189;
        const Q t194 = c[2] * t188;
        const Q t195 = t193 - t194;
        const Q t196 = t32 + t79;
        const Q t197 = shuffled<0, 1, 4, 5>(t24, t25);
        const Q t198 = t196 + t197;
        const Q t199 = c[1] * t32;
        const Q t200 = t197 - t199;
        const Q t201 = c[0] * t32;
        const Q t202 = c[1] * t79;
        const Q t203 = t201 - t202;
        const Q t204 = c[0] * t79;
        const Q t205 = t200 + t204;
        const Q t206 = t203 + t197;
        const P x0 = io.pair(0);
        const P t207 = part<0>(t198);
        // complex block of 41
        const P t208 = x0 + t207;
        io.pair(0, t208);
        const P t209 = c[43] * t207;
        const P t210 = x0 - t209;
        const Q t211 = shuffled<0, 1, 6, 7>(t205, t206);
        const Q t212 = Q(c[5], c[5], c[6], c[6]) * t211;
        const Q t213 = shuffled<0, 1, 6, 7>(t192, t195);
        const Q t214 = Q(-c[7], -c[7], c[8], c[8]) * t213;
        const Q t215 = t212 + t214;
        const Q t216 = shuffled<0, 1, 6, 7>(t206, t205);
        const Q t217 = Q(c[9], c[9], c[10], c[10]) * t216;
        const Q t218 = shuffled<0, 1, 6, 7>(t195, t192);
        const Q t219 = Q(-c[11], -c[11], c[12], c[12]) * t218;
        const Q t220 = t217 + t219;
        const Q t221 = flipped<0, 0, 1, 1>(t220);
        // spectrum block of 5, multiplier 3
        const Q t222 = t215 + t221;
        const Q t223 = shuffled<0, 1, 6, 7>(t215, t221);
        const Q t224 = Q(c[0], c[0], -c[0], -c[0]) * t223;
        const P t225 = part<0>(t224);
        const P t226 = part<0>(t221);
        const P t227 = c[1] * t226;
        const P t228 = t225 - t227;
        const P t229 = part<1>(t198);
        // complex block of 41
        const P t230 = c[44] * t229;
        const P t231 = part<1>(t224);
        // spectrum block of 5, multiplier 3
        const P t232 = t230 - t231;
        const Q t233 = joined(t228, t232);
        const P t234 = part<1>(t215);
        const P t235 = -c[1] * t234;
        const Q t236 = joined(t210, t235);
        // spectrum block of 5, multiplier 3
        const Q t237 = t233 + t236;
        const Q t238 = Q(c[1], c[1], -c[1], -c[1]) * t223;
        const P t239 = part<0>(t238);
        const P t240 = t210 - t239;
        const P t241 = part<1>(t238);
        // spectrum block of 5, multiplier 3
        const P t242 = c[0] * t234;
        const P t243 = t241 + t242;
        const Q t244 = joined(t240, t243);
        // spectrum block of 5, multiplier 3
        const P t245 = c[0] * t226;
        const Q t246 = joined(t245, t230);
        const Q t247 = t244 + t246;
        const Q t248 = shuffled<0, 1, 6, 7>(t236, t246);
        const Q t249 = t222 + t248;
        const Q t250 = shuffled<2, 3, 6, 7>(t178, t179);
        const Q t251 = shuffled<1, 0, 3, 2>(t250);
        // complex block of 41
        const Q t252 = Q(c[13], c[13], -c[13], c[13]) * t251;
        const Q t253 = shuffled<2, 3, 0, 1>(t251);
        const Q t254 = Q(c[14], c[14], c[14], -c[14]) * t253;
        const Q t255 = t252 + t254;
        const Q t256 = shuffled<2, 3, 6, 7>(t175, t174);
        const Q t257 = shuffled<1, 0, 3, 2>(t256);
        const Q t258 = Q(c[15], -c[15], c[15], c[15]) * t257;
        const Q t259 = shuffled<2, 3, 0, 1>(t257);
        const Q t260 = Q(-c[16], c[16], c[16], c[16]) * t259;
        const Q t261 = t258 + t260;
        const P t262 = part<0>(t255);
        const P t263 = part<0>(t261);
        const P t264 = flipped<1, 0>(t263);
        // complex block of 5, multiplier 3
        const P t265 = t262 + t264;
        const P t266 = part<1>(t255);
        const P t267 = part<1>(t261);
        const P t268 = flipped<1, 0>(t267);
        const P t269 = t266 + t268;
        const P t270 = flipped<0, 1>(t262);
        const P t271 = t263 + t270;
        const P t272 = t266 - t268;
        const Q t273 = shuffled<2, 3, 2, 3>(t184);
        const Q t274 = shuffled<1, 0, 3, 2>(t273);
        // complex block of 41
        const Q t275 = Q(c[17], c[17], -c[18], c[18]) * t274;
        const Q t276 = shuffled<2, 3, 2, 3>(t185);
        const Q t277 = shuffled<1, 0, 3, 2>(t276);
        const Q t278 = Q(c[18], c[18], c[17], -c[17]) * t277;
        const Q t279 = t275 + t278;
        const Q t280 = shuffled<2, 3, 2, 3>(t186);
        const Q t281 = shuffled<1, 0, 3, 2>(t280);
        const Q t282 = Q(c[19], c[19], -c[20], c[20]) * t281;
        const Q t283 = shuffled<2, 3, 2, 3>(t187);
        const Q t284 = shuffled<1, 0, 3, 2>(t283);
        const Q t285 = Q(c[20], c[20], c[19], -c[19]) * t284;
        const Q t286 = t282 + t285;
        const P t287 = part<0>(t286);
        const P t288 = part<0>(t279);
        // complex block of 5, multiplier 3
        const P t289 = t287 + t288;
        const P t290 = part<1>(t286);
        const P t291 = part<1>(t279);
        const P t292 = t290 + t291;
        const P t293 = shuffled<0, 3>(t288, t287);
        const P t294 = shuffled<0, 3>(t287, t288);
        const P t295 = t293 - t294;
        const P t296 = t290 - t291;
        const Q t297 = shuffled<2, 3, 6, 7>(t108, t111);
        const Q t298 = shuffled<1, 0, 3, 2>(t297);
        // complex block of 41
        const Q t299 = Q(c[21], c[21], -c[21], c[21]) * t298;
        const Q t300 = shuffled<2, 3, 0, 1>(t298);
        const Q t301 = Q(c[22], c[22], c[22], -c[22]) * t300;
        const Q t302 = t299 + t301;
        const P t303 = part<0>(t302);
        const V t304 = part<0>(t303);
        // complex block of 5, multiplier 3
        const P t305 = c[0] * t289;
        const V t306 = part<0>(t305);
        const V t307 = t304 - t306;
        const P t308 = c[1] * t265;
        const V t309 = part<0>(t308);
        const V t310 = t307 - t309;
        const P t311 = c[0] * t292;
        const V t312 = part<0>(t311);
        const P t313 = c[1] * t269;
        const V t314 = part<0>(t313);
        const V t315 = t312 - t314;
        const P t316 = part<1>(t302);
        const V t317 = part<0>(t316);
        const V t318 = t315 + t317;
        const P t319 = c[2] * t295;
        const V t320 = part<0>(t319);
        const P t321 = c[3] * t271;
        const V t322 = part<0>(t321);
        const V t323 = t320 - t322;
        const V t324 = part<1>(t319);
        const V t325 = part<1>(t321);
        // complex block of 5, multiplier 3
        const V t326 = t324 - t325;
        // complex block of 5, multiplier 3
        const P t327 = c[2] * t296;
        const V t328 = part<0>(t327);
        const P t329 = c[3] * t272;
        const V t330 = part<0>(t329);
        const V t331 = t328 - t330;
        const V t332 = part<1>(t327);
        const V t333 = part<1>(t329);
        // complex block of 5, multiplier 3
        const V t334 = t332 - t333;
        // complex block of 5, multiplier 3
        const P t335 = c[1] * t289;
        const V t336 = part<0>(t335);
        const P t337 = c[0] * t265;
        const V t338 = part<0>(t337);
        const V t339 = t336 + t338;
        const V t340 = part<1>(t303);
        const V t341 = part<1>(t335);
        // complex block of 5, multiplier 3
        const V t342 = t340 + t341;
        const P t343 = joined(t339, t342);
        const P t344 = shuffled<0, 3>(t303, t337);
        // complex block of 5, multiplier 3
        const P t345 = t343 + t344;
        const P t346 = shuffled<0, 3>(t265, t289);
        const P t347 = shuffled<0, 3>(t289, t265);
        const P t348 = t346 - t347;
        const P t349 = flipped<0, 1>(t303);
        const P t350 = t348 + t349;
        const P t351 = t292 + t269;
        const P t352 = t351 + t316;
        const V t353 = part<1>(t305);
        const V t354 = part<1>(t308);
        // complex block of 5, multiplier 3
        const V t355 = t353 + t354;
        const V t356 = t355 - t340;
        const V t357 = part<1>(t311);
        const V t358 = part<1>(t313);
        const V t359 = t357 - t358;
        const V t360 = part<1>(t316);
        const V t361 = t359 + t360;
        // complex block of 5, multiplier 3
        const P t362 = c[1] * t292;
        const P t363 = t316 - t362;
        const P t364 = c[0] * t269;
        const P t365 = t363 + t364;
        const P t366 = c[3] * t295;
        const P t367 = c[2] * t271;
        const P t368 = t366 + t367;
        const P t369 = c[3] * t296;
        const P t370 = c[2] * t272;
        const P t371 = t369 + t370;
        const P t372 = part<0>(t184);
        const P t373 = shuffled<1, 0>(t372);
        const Q t374 = joined(t373, t180);
        // complex block of 41
        const Q t375 = Q(c[23], -c[23], c[24], c[24]) * t374;
        const P t376 = part<0>(t185);
        const P t377 = shuffled<1, 0>(t376);
        const Q t378 = joined(t377, t181);
        const Q t379 = Q(c[25], -c[25], c[26], c[26]) * t378;
        const Q t380 = t375 - t379;
        const P t381 = part<0>(t186);
        const P t382 = shuffled<1, 0>(t381);
        const Q t383 = joined(t382, t183);
        const Q t384 = Q(c[27], c[27], c[28], c[28]) * t383;
        const P t385 = part<0>(t187);
        const P t386 = shuffled<1, 0>(t385);
        const Q t387 = joined(t386, t182);
        const Q t388 = Q(c[29], c[29], -c[30], -c[30]) * t387;
        const Q t389 = t384 + t388;
        const Q t390 = flipped<0, 1, 0, 0>(t389);
        // complex block of 5, multiplier 3
        const Q t391 = t390 + t380;
        const Q t392 = flipped<0, 1, 0, 0>(t380);
        const Q t393 = t389 - t392;
        const P t394 = part<0>(t108);
        const P t395 = shuffled<1, 0>(t394);
        const Q t396 = joined(t395, t102);
        // complex block of 41
        const Q t397 = Q(c[31], c[31], c[32], c[32]) * t396;
        const P t398 = part<0>(t111);
        const P t399 = shuffled<1, 0>(t398);
        const Q t400 = joined(t399, t105);
        const Q t401 = Q(c[33], c[33], c[34], c[34]) * t400;
        const Q t402 = t397 + t401;
        const P t403 = part<0>(t179);
        const P t404 = shuffled<1, 0>(t403);
        const Q t405 = joined(t404, t176);
        const Q t406 = Q(c[35], -c[35], c[36], c[36]) * t405;
        const P t407 = part<0>(t178);
        const P t408 = shuffled<1, 0>(t407);
        const Q t409 = joined(t408, t177);
        const Q t410 = Q(c[37], -c[37], c[38], c[38]) * t409;
        const Q t411 = t406 - t410;
        const P t412 = part<0>(t174);
        const P t413 = shuffled<1, 0>(t412);
        const Q t414 = joined(t413, t172);
        const Q t415 = Q(c[39], c[39], c[40], c[40]) * t414;
        const P t416 = part<0>(t175);
        const P t417 = shuffled<1, 0>(t416);
        const Q t418 = joined(t417, t173);
        const Q t419 = Q(c[41], c[41], c[42], c[42]) * t418;
        const Q t420 = t415 + t419;
        const Q t421 = flipped<1, 0, 0, 0>(t420);
        // complex block of 5, multiplier 3
        const Q t422 = t411 + t421;
        const Q t423 = t411 - t421;
        const Q t424 = t391 + t422;
        const Q t425 = flipped<1, 0, 0, 0>(t402);
        const Q t426 = t424 - t425;
        const Q t427 = c[0] * t391;
        const Q t428 = c[1] * t422;
        const Q t429 = t427 - t428;
        const Q t430 = t429 - t425;
        const Q t431 = c[2] * t393;
        const Q t432 = Q(c[3], -c[3], c[3], c[3]) * t423;
        const Q t433 = t431 - t432;
        const Q t434 = Q(-c[1], c[1], c[1], c[1]) * t391;
        const Q t435 = t402 + t434;
        const Q t436 = c[0] * t422;
        const Q t437 = flipped<1, 0, 0, 0>(t435);
        const Q t438 = t436 - t437;
        const Q t439 = Q(c[3], -c[3], c[3], c[3]) * t393;
        const Q t440 = c[2] * t423;
        const Q t441 = t439 + t440;
        // complex block of 41
        const Q t442 = Q(c[31], -c[31], c[32], c[32]) * t400;
        const Q t443 = Q(c[33], -c[33], c[34], c[34]) * t396;
        const Q t444 = t442 - t443;
        const Q t445 = shuffled<0, 1, 6, 7>(t405, t409);
        const Q t446 = Q(c[37], c[37], c[36], c[36]) * t445;
        const Q t447 = shuffled<0, 1, 6, 7>(t409, t405);
        const Q t448 = Q(c[35], c[35], c[38], c[38]) * t447;
        const Q t449 = t446 + t448;
        const Q t450 = shuffled<0, 1, 6, 7>(t418, t414);
        const Q t451 = Q(c[39], -c[39], c[42], c[42]) * t450;
        const Q t452 = shuffled<0, 1, 6, 7>(t414, t418);
        const Q t453 = Q(c[41], -c[41], c[40], c[40]) * t452;
        const Q t454 = t451 - t453;
        const Q t455 = flipped<1, 0, 0, 0>(t454);
        // complex block of 5, multiplier 3
        const Q t456 = t449 - t455;
        const Q t457 = flipped<1, 0, 0, 0>(t449);
        const Q t458 = t457 + t454;
        const Q t459 = shuffled<0, 1, 6, 7>(t387, t378);
        // complex block of 41
        const Q t460 = Q(c[27], -c[27], c[24], c[24]) * t459;
        const Q t461 = shuffled<0, 1, 6, 7>(t383, t374);
        const Q t462 = Q(-c[29], c[29], c[26], c[26]) * t461;
        const Q t463 = t460 + t462;
        const Q t464 = shuffled<0, 1, 6, 7>(t378, t383);
        const Q t465 = Q(c[23], c[23], c[30], c[30]) * t464;
        const Q t466 = shuffled<0, 1, 6, 7>(t374, t387);
        const Q t467 = Q(c[25], c[25], c[28], c[28]) * t466;
        const Q t468 = t465 + t467;
        const Q t469 = flipped<1, 0, 0, 0>(t468);
        // complex block of 5, multiplier 3
        const Q t470 = t463 - t469;
        const Q t471 = t469 + t463;
        const Q t472 = flipped<1, 0, 0, 0>(t456);
        const Q t473 = t470 + t472;
        const Q t474 = t473 + t444;
        const Q t475 = c[0] * t470;
        const Q t476 = Q(-c[1], c[1], c[1], c[1]) * t456;
        const Q t477 = t475 - t476;
        const Q t478 = t477 + t444;
        const Q t479 = c[2] * t471;
        const Q t480 = Q(-c[3], -c[3], c[3], c[3]) * t458;
        const Q t481 = t479 + t480;
        const Q t482 = c[1] * t470;
        const Q t483 = t444 - t482;
        const Q t484 = Q(-c[0], c[0], c[0], c[0]) * t456;
        const Q t485 = t483 + t484;
        const Q t486 = c[2] * t458;
        const Q t487 = Q(c[3], c[3], -c[3], -c[3]) * t471;
        const Q t488 = t486 + t487;
        // complex block of 41
        const Q t489 = Q(c[5], c[5], c[10], c[10]) * t192;
        const Q t490 = Q(c[7], c[7], -c[12], -c[12]) * t205;
        const Q t491 = t489 + t490;
        const Q t492 = shuffled<0, 1, 6, 7>(t218, t211);
        const Q t493 = Q(c[9], c[9], c[8], c[8]) * t492;
        const Q t494 = shuffled<0, 1, 6, 7>(t216, t213);
        const Q t495 = Q(c[11], c[11], -c[6], -c[6]) * t494;
        const Q t496 = t493 + t495;
        // spectrum block of 5, multiplier 3
        const Q t497 = c[2] * t491;
        const Q t498 = c[3] * t496;
        const Q t499 = t497 + t498;
        const Q t500 = Q(-c[2], -c[2], c[2], c[2]) * t496;
        const Q t501 = Q(c[3], c[3], -c[3], -c[3]) * t491;
        const Q t502 = t500 + t501;
        // complex block of 5, multiplier 3
        const V t503 = t310 + t331;
        const V t504 = t310 - t331;
        const Q t505 = flipped<0, 1, 0, 0>(t433);
        // complex block of 5, multiplier 3
        const Q t506 = t478 + t505;
        const Q t507 = t478 - t505;
        // complex block of 5, multiplier 3
        const V t508 = t356 + t334;
        const V t509 = t356 - t334;
        const P t510 = joined(t503, t508);
        const P t511 = joined(t504, t509);
        const Q t512 = joined(t510, t511);
        const Q t513 = shuffled<0, 1, 4, 5>(t506, t507);
        // mirrored skew block of 4, multiplier 5
        const Q t514 = t512 + t513;
        const Q t515 = t513 - t512;
        // complex block of 5, multiplier 3
        const V t516 = t318 - t323;
        const V t517 = t318 + t323;
        const Q t518 = flipped<1, 1, 0, 0>(t481);
        // complex block of 5, multiplier 3
        const Q t519 = t430 + t518;
        const Q t520 = t430 - t518;
        // complex block of 5, multiplier 3
        const V t521 = t361 - t326;
        const V t522 = t361 + t326;
        const P t523 = joined(t516, t521);
        const P t524 = joined(t517, t522);
        const Q t525 = joined(t523, t524);
        const Q t526 = shuffled<0, 1, 4, 5>(t519, t520);
        // mirrored skew block of 4, multiplier 5
        const Q t527 = t525 - t526;
        const Q t528 = t525 + t526;
        const Q t529 = flipped<1, 1, 0, 0>(t499);
        // spectrum block of 5, multiplier 3
        const Q t530 = t237 + t529;
        const Q t531 = t237 - t529;
        const Q t532 = shuffled<0, 1, 4, 5>(t530, t531);
        const Q t533 = shuffled<2, 3, 6, 7>(t530, t531);
        // spectrum block of 2
        const Q t534 = t532 + t533;
        const Q t535 = t532 - t533;
        const Q t536 = shuffled<2, 3, 6, 7>(t519, t520);
        // spectrum block of 2
        const Q t537 = t534 + t536;
        // spectrum block of 2
        const Q t538 = t537 + t528;
        io.pairs(16, 18, t538);
        const Q t539 = t537 - t528;
        io.pairs(25, 23, t539);
        // spectrum block of 2
        const Q t540 = t534 - t536;
        // spectrum block of 2
        const Q t541 = t540 - t515;
        io.pairs(21, 39, t541);
        const Q t542 = t540 + t515;
        io.pairs(20, 2, t542);
        const Q t543 = shuffled<2, 3, 6, 7>(t506, t507);
        // spectrum block of 2
        const Q t544 = t535 - t543;
        // mirrored skew block of 4, multiplier 5
        const Q t545 = c[4] * t527;
        const Q t546 = c[4] * t514;
        const Q t547 = t545 + t546;
        // spectrum block of 2
        const Q t548 = t544 + t547;
        io.pairs(34, 28, t548);
        const Q t549 = t544 - t547;
        io.pairs(7, 13, t549);
        // spectrum block of 2
        const Q t550 = t535 + t543;
        // mirrored skew block of 4, multiplier 5
        const Q t551 = t545 - t546;
        // spectrum block of 2
        const Q t552 = t550 - t551;
        io.pairs(19, 6, t552);
        const Q t553 = t550 + t551;
        io.pairs(22, 35, t553);
        // complex block of 5, multiplier 3
        const Q t554 = t485 + t441;
        const P t555 = flipped<0, 1>(t345);
        // complex block of 5, multiplier 3
        const P t556 = t371 + t555;
        const P t557 = part<0>(t554);
        // mirrored skew block of 4, multiplier 5
        const P t558 = t556 + t557;
        const P t559 = t557 - t556;
        // complex block of 5, multiplier 3
        const Q t560 = t438 - t488;
        // complex block of 5, multiplier 3
        const P t561 = t365 - t368;
        const P t562 = part<0>(t560);
        // mirrored skew block of 4, multiplier 5
        const P t563 = t561 - t562;
        const P t564 = t561 + t562;
        // spectrum block of 5, multiplier 3
        const Q t565 = t247 - t502;
        const P t566 = part<0>(t565);
        const P t567 = part<1>(t565);
        // spectrum block of 2
        const P t568 = t566 + t567;
        const P t569 = t566 - t567;
        const Q t570 = joined(t568, t569);
        const Q t571 = shuffled<2, 3, 6, 7>(t560, t554);
        const Q t572 = flipped<0, 0, 1, 1>(t571);
        // spectrum block of 2
        const Q t573 = t570 + t572;
        // mirrored skew block of 4, multiplier 5
        const P t574 = c[4] * t563;
        const P t575 = c[4] * t558;
        const P t576 = t574 + t575;
        const Q t577 = joined(t564, t576);
        // spectrum block of 2
        const Q t578 = t573 + t577;
        io.pairs(10, 11, t578);
        const Q t579 = t573 - t577;
        io.pairs(31, 30, t579);
        // spectrum block of 2
        const Q t580 = t570 - t572;
        // mirrored skew block of 4, multiplier 5
        const P t581 = t574 - t575;
        const Q t582 = joined(t559, t581);
        // spectrum block of 2
        const Q t583 = t580 - t582;
        io.pairs(8, 17, t583);
        const Q t584 = t580 + t582;
        io.pairs(33, 24, t584);
        // complex block of 5, multiplier 3
        const Q t585 = t485 - t441;
        const P t586 = flipped<1, 0>(t371);
        // complex block of 5, multiplier 3
        const P t587 = t345 + t586;
        const Q t588 = joined(t350, t587);
        const Q t589 = shuffled<0, 1, 4, 5>(t474, t585);
        const Q t590 = flipped<0, 0, 0, 1>(t589);
        // mirrored skew block of 4, multiplier 5
        const Q t591 = t588 + t590;
        const Q t592 = flipped<0, 0, 0, 1>(t588);
        const Q t593 = t589 - t592;
        // complex block of 5, multiplier 3
        const Q t594 = t438 + t488;
        // complex block of 5, multiplier 3
        const P t595 = t365 + t368;
        const Q t596 = joined(t352, t595);
        const Q t597 = shuffled<0, 1, 4, 5>(t426, t594);
        // mirrored skew block of 4, multiplier 5
        const Q t598 = t596 - t597;
        const Q t599 = t596 + t597;
        // spectrum block of 5, multiplier 3
        const Q t600 = t247 + t502;
        const Q t601 = shuffled<0, 1, 4, 5>(t249, t600);
        const Q t602 = shuffled<2, 3, 6, 7>(t249, t600);
        // spectrum block of 2
        const Q t603 = t601 + t602;
        const Q t604 = t601 - t602;
        const Q t605 = shuffled<2, 3, 6, 7>(t426, t594);
        // spectrum block of 2
        const Q t606 = t603 + t605;
        // spectrum block of 2
        const Q t607 = t606 + t599;
        io.pairs(1, 37, t607);
        const Q t608 = t606 - t599;
        io.pairs(40, 4, t608);
        // spectrum block of 2
        const Q t609 = t603 - t605;
        // spectrum block of 2
        const Q t610 = t609 - t593;
        io.pairs(9, 5, t610);
        const Q t611 = t609 + t593;
        io.pairs(32, 36, t611);
        const Q t612 = shuffled<2, 3, 6, 7>(t474, t585);
        // spectrum block of 2
        const Q t613 = t604 - t612;
        // mirrored skew block of 4, multiplier 5
        const Q t614 = c[4] * t598;
        const Q t615 = Q(c[4], c[4], c[4], -c[4]) * t591;
        const Q t616 = t614 + t615;
        // spectrum block of 2
        const Q t617 = t613 + t616;
        io.pairs(38, 12, t617);
        const Q t618 = t613 - t616;
        io.pairs(3, 29, t618);
        // spectrum block of 2
        const Q t619 = t604 + t612;
        // mirrored skew block of 4, multiplier 5
        const Q t620 = t614 - t615;
        // spectrum block of 2
        const Q t621 = t619 - t620;
        io.pairs(14, 26, t621);
        const Q t622 = t619 + t620;
        io.pairs(27, 15, t622);
    }
};

}  // namespace zulg
