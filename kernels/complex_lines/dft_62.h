// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 62.
// Complex DFT of 62 points, prime-factor, order 31, 2; two lines of a stage to a register.
// 219 sums, 177 differences, 198 products of registers, which do the 2400 steps of the graph, those with
// `scale` included; 97 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<62> {
    static constexpr int steps = 2400;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.008505491359144196,  // c[6]: Q[9] of 31
        0.37108682864596165,  // c[7]: P[9] of 31
        0.3386491040641593,  // c[8]: Q[1] of 31
        0.15196895108646355,  // c[9]: -P[1] of 31
        0.36539376648991023,  // c[10]: -Q[11] of 31
        0.06530829340975558,  // c[11]: P[11] of 31
        0.37067181273221134,  // c[12]: -P[3] of 31
        0.019498333867134416,  // c[13]: Q[3] of 31
        0.28075102554360776,  // c[14]: Q[7] of 31
        0.24280988331200667,  // c[15]: -P[7] of 31
        0.3312534027537607,  // c[16]: -Q[13] of 31
        0.1674782402040115,  // c[17]: -P[13] of 31
        0.29980901846811486,  // c[18]: -P[2] of 31
        0.21884316352804659,  // c[19]: Q[2] of 31
        0.3665614991633792,  // c[20]: P[4] of 31
        0.05839901633481273,  // c[21]: Q[4] of 31
        0.2970284107916672,  // c[22]: P[6] of 31
        0.2226025627892778,  // c[23]: Q[6] of 31
        0.35531525594489755,  // c[24]: P[8] of 31
        0.1073724670043011,  // c[25]: -Q[8] of 31
        0.10130252550848418,  // c[26]: Q[12] of 31
        0.35709323166839874,  // c[27]: -P[12] of 31
        0.2485676599132395,  // c[28]: P[14] of 31
        0.27566627690567064,  // c[29]: Q[14] of 31
        0.2580069240952765,  // c[30]: Q[5] of 31
        0.26685240283098827,  // c[31]: P[5] of 31
        0.1855921454276674,  // c[32]: beta of 31
        0.23110095991255428,  // c[33]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[34]: sin 2 pi 1/3 times Q[5] of 31
        0.03333333333333333,  // c[35]: 1/30
        0.3417205692768941,  // c[36]: P[10] of 31
        0.1449304326594425,  // c[37]: Q[10] of 31
        0.1255134364645471,  // c[38]: sin 2 pi 1/3 times Q[10] of 31
        0.2959386939894704,  // c[39]: sin 2 pi 1/3 times P[10] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x32_1 = io.pairs(32, 1);
        const Q x4_35 = io.pairs(4, 35);
        // real block of 5
        const Q t0 = x32_1 + x4_35;
        const Q x8_39 = io.pairs(8, 39);
        const Q x16_47 = io.pairs(16, 47);
        const Q t1 = x8_39 + x16_47;
        const Q t2 = t0 + t1;
        const Q x2_33 = io.pairs(2, 33);
        const Q t3 = t2 + x2_33;
        const Q x56_25 = io.pairs(56, 25);
        const Q x38_7 = io.pairs(38, 7);
        // real block of 5
        const Q t4 = x56_25 + x38_7;
        const Q x14_45 = io.pairs(14, 45);
        const Q x28_59 = io.pairs(28, 59);
        const Q t5 = x14_45 + x28_59;
        const Q t6 = t4 + t5;
        const Q x50_19 = io.pairs(50, 19);
        const Q t7 = t6 + x50_19;
        const Q x36_5 = io.pairs(36, 5);
        const Q x20_51 = io.pairs(20, 51);
        // real block of 5
        const Q t8 = x36_5 + x20_51;
        const Q x40_9 = io.pairs(40, 9);
        const Q x18_49 = io.pairs(18, 49);
        const Q t9 = x40_9 + x18_49;
        const Q t10 = t8 + t9;
        const Q x10_41 = io.pairs(10, 41);
        const Q t11 = t10 + x10_41;
        // real block of 3
        const Q t12 = t7 + t11;
        const Q t13 = c[4] * t12;
        const Q t14 = t3 - t13;
        const Q x30_61 = io.pairs(30, 61);
        const Q x58_27 = io.pairs(58, 27);
        // real block of 5
        const Q t15 = x30_61 + x58_27;
        const Q x54_23 = io.pairs(54, 23);
        const Q x46_15 = io.pairs(46, 15);
        const Q t16 = x54_23 + x46_15;
        const Q t17 = t15 + t16;
        const Q x60_29 = io.pairs(60, 29);
        const Q t18 = t17 + x60_29;
        const Q x6_37 = io.pairs(6, 37);
        const Q x24_55 = io.pairs(24, 55);
        // real block of 5
        const Q t19 = x6_37 + x24_55;
        const Q x48_17 = io.pairs(48, 17);
        const Q x34_3 = io.pairs(34, 3);
        const Q t20 = x48_17 + x34_3;
        const Q t21 = t19 + t20;
        const Q x12_43 = io.pairs(12, 43);
        const Q t22 = t21 + x12_43;
        const Q x26_57 = io.pairs(26, 57);
        const Q x42_11 = io.pairs(42, 11);
        // real block of 5
        const Q t23 = x26_57 + x42_11;
        const Q x22_53 = io.pairs(22, 53);
        const Q x44_13 = io.pairs(44, 13);
        const Q t24 = x22_53 + x44_13;
        const Q t25 = t23 + t24;
        const Q x52_21 = io.pairs(52, 21);
        const Q t26 = t25 + x52_21;
        // real block of 3
        const Q t27 = t22 + t26;
        const Q t28 = c[4] * t27;
        const Q t29 = t18 - t28;
        // complex block of 2
        const Q t30 = t14 - t29;
        // real block of 3
        const Q t31 = t22 - t26;
        // real block of 3
        const Q t32 = t7 - t11;
        // real block of 3
        const Q t33 = c[5] * t31;
        // real block of 3
        const Q t34 = c[5] * t32;
        // complex block of 2
        const Q t35 = t33 - t34;
        // real block of 5
        const Q t36 = c[0] * t4;
        const Q t37 = c[1] * t5;
        const Q t38 = t36 - t37;
        const Q t39 = t38 + x50_19;
        // real block of 5
        const Q t40 = c[0] * t8;
        const Q t41 = c[1] * t9;
        const Q t42 = t40 - t41;
        const Q t43 = t42 + x10_41;
        // complex block of 3
        const Q t44 = t39 + t43;
        // real block of 5
        const Q t45 = c[0] * t0;
        const Q t46 = c[1] * t1;
        const Q t47 = t45 - t46;
        const Q t48 = t47 + x2_33;
        // complex block of 3
        const Q t49 = t44 + t48;
        // real block of 5
        const Q t50 = c[0] * t19;
        const Q t51 = c[1] * t20;
        const Q t52 = t50 - t51;
        const Q t53 = t52 + x12_43;
        // real block of 5
        const Q t54 = c[0] * t23;
        const Q t55 = c[1] * t24;
        const Q t56 = t54 - t55;
        const Q t57 = t56 + x52_21;
        // complex block of 3
        const Q t58 = t53 + t57;
        // real block of 5
        const Q t59 = c[0] * t15;
        const Q t60 = c[1] * t16;
        const Q t61 = t59 - t60;
        const Q t62 = t61 + x60_29;
        // complex block of 3
        const Q t63 = t58 + t62;
        // complex block of 2
        const Q t64 = t49 - t63;
        // real block of 5
        const Q t65 = x14_45 - x28_59;
        const Q t66 = x56_25 - x38_7;
        const Q t67 = c[2] * t65;
        const Q t68 = c[3] * t66;
        const Q t69 = t67 - t68;
        // real block of 5
        const Q t70 = x40_9 - x18_49;
        const Q t71 = x36_5 - x20_51;
        const Q t72 = c[2] * t70;
        const Q t73 = c[3] * t71;
        const Q t74 = t72 - t73;
        // complex block of 3
        const Q t75 = t69 + t74;
        // real block of 5
        const Q t76 = x8_39 - x16_47;
        const Q t77 = x32_1 - x4_35;
        const Q t78 = c[2] * t76;
        const Q t79 = c[3] * t77;
        const Q t80 = t78 - t79;
        // complex block of 3
        const Q t81 = t75 + t80;
        // real block of 5
        const Q t82 = x48_17 - x34_3;
        const Q t83 = x6_37 - x24_55;
        const Q t84 = c[2] * t82;
        const Q t85 = c[3] * t83;
        const Q t86 = t84 - t85;
        // real block of 5
        const Q t87 = x22_53 - x44_13;
        const Q t88 = x26_57 - x42_11;
        const Q t89 = c[2] * t87;
        const Q t90 = c[3] * t88;
        const Q t91 = t89 - t90;
        // complex block of 3
        const Q t92 = t86 + t91;
        // real block of 5
        const Q t93 = x54_23 - x46_15;
        const Q t94 = x30_61 - x58_27;
        const Q t95 = c[2] * t93;
        const Q t96 = c[3] * t94;
        const Q t97 = t95 - t96;
        // complex block of 3
        const Q t98 = t92 + t97;
        // complex block of 2
        const Q t99 = t81 - t98;
        const Q t100 = shuffled<1, 0, 3, 2>(t64);
        // complex block of 31, multiplier 2
        const Q t101 = c[6] * t100;
        const Q t102 = shuffled<1, 0, 3, 2>(t99);
        const Q t103 = c[7] * t102;
        const Q t104 = t101 + t103;
        // complex block of 3
        const Q t105 = c[4] * t44;
        const Q t106 = t48 - t105;
        const Q t107 = t69 - t74;
        const Q t108 = c[5] * t107;
        const Q t109 = t106 + t108;
        // complex block of 3
        const Q t110 = c[4] * t58;
        const Q t111 = t62 - t110;
        const Q t112 = t86 - t91;
        const Q t113 = c[5] * t112;
        const Q t114 = t111 + t113;
        // complex block of 2
        const Q t115 = t109 - t114;
        // complex block of 3
        const Q t116 = c[4] * t75;
        const Q t117 = t80 - t116;
        const Q t118 = t39 - t43;
        const Q t119 = c[5] * t118;
        const Q t120 = t117 - t119;
        // complex block of 3
        const Q t121 = c[4] * t92;
        const Q t122 = t97 - t121;
        const Q t123 = t53 - t57;
        const Q t124 = c[5] * t123;
        const Q t125 = t122 - t124;
        // complex block of 2
        const Q t126 = t120 - t125;
        const Q t127 = shuffled<1, 0, 3, 2>(t115);
        // complex block of 31, multiplier 2
        const Q t128 = c[8] * t127;
        const Q t129 = shuffled<1, 0, 3, 2>(t126);
        const Q t130 = c[9] * t129;
        const Q t131 = t128 + t130;
        // complex block of 3
        const Q t132 = t106 - t108;
        // complex block of 3
        const Q t133 = t111 - t113;
        // complex block of 2
        const Q t134 = t132 - t133;
        // complex block of 3
        const Q t135 = t117 + t119;
        // complex block of 3
        const Q t136 = t122 + t124;
        // complex block of 2
        const Q t137 = t135 - t136;
        const Q t138 = shuffled<1, 0, 3, 2>(t134);
        // complex block of 31, multiplier 2
        const Q t139 = c[10] * t138;
        const Q t140 = shuffled<1, 0, 3, 2>(t137);
        const Q t141 = c[11] * t140;
        const Q t142 = t139 + t141;
        const Q t143 = shuffled<0, 5, 2, 7>(t131, t142);
        const Q t144 = shuffled<0, 5, 2, 7>(t142, t131);
        // complex block of 3
        const Q t145 = t143 - t144;
        const Q t146 = Q(-c[4], c[4], -c[4], c[4]) * t145;
        const Q t147 = t104 + t146;
        // complex block of 31, multiplier 2
        const Q t148 = Q(-c[9], c[9], -c[9], c[9]) * t127;
        const Q t149 = Q(c[8], -c[8], c[8], -c[8]) * t129;
        const Q t150 = t148 + t149;
        const Q t151 = Q(-c[10], c[10], -c[10], c[10]) * t140;
        const Q t152 = Q(c[11], -c[11], c[11], -c[11]) * t138;
        const Q t153 = t151 + t152;
        // complex block of 3
        const Q t154 = t150 - t153;
        const Q t155 = Q(-c[5], c[5], -c[5], c[5]) * t154;
        const Q t156 = t147 + t155;
        // real block of 5
        const Q t157 = c[1] * t4;
        const Q t158 = x50_19 - t157;
        const Q t159 = c[0] * t5;
        const Q t160 = t158 + t159;
        // real block of 5
        const Q t161 = c[1] * t8;
        const Q t162 = x10_41 - t161;
        const Q t163 = c[0] * t9;
        const Q t164 = t162 + t163;
        // complex block of 3
        const Q t165 = t160 + t164;
        // real block of 5
        const Q t166 = c[1] * t0;
        const Q t167 = x2_33 - t166;
        const Q t168 = c[0] * t1;
        const Q t169 = t167 + t168;
        // complex block of 3
        const Q t170 = t165 + t169;
        // real block of 5
        const Q t171 = c[1] * t19;
        const Q t172 = x12_43 - t171;
        const Q t173 = c[0] * t20;
        const Q t174 = t172 + t173;
        // real block of 5
        const Q t175 = c[1] * t23;
        const Q t176 = x52_21 - t175;
        const Q t177 = c[0] * t24;
        const Q t178 = t176 + t177;
        // complex block of 3
        const Q t179 = t174 + t178;
        // real block of 5
        const Q t180 = c[1] * t15;
        const Q t181 = x60_29 - t180;
        const Q t182 = c[0] * t16;
        const Q t183 = t181 + t182;
        // complex block of 3
        const Q t184 = t179 + t183;
        // complex block of 2
        const Q t185 = t170 - t184;
        // real block of 5
        const Q t186 = c[2] * t83;
        const Q t187 = c[3] * t82;
        const Q t188 = t186 + t187;
        // real block of 5
        const Q t189 = c[2] * t88;
        const Q t190 = c[3] * t87;
        const Q t191 = t189 + t190;
        // complex block of 3
        const Q t192 = t188 + t191;
        // real block of 5
        const Q t193 = c[2] * t94;
        const Q t194 = c[3] * t93;
        const Q t195 = t193 + t194;
        // complex block of 3
        const Q t196 = t192 + t195;
        // real block of 5
        const Q t197 = c[2] * t66;
        const Q t198 = c[3] * t65;
        const Q t199 = t197 + t198;
        // real block of 5
        const Q t200 = c[2] * t71;
        const Q t201 = c[3] * t70;
        const Q t202 = t200 + t201;
        // complex block of 3
        const Q t203 = t199 + t202;
        // real block of 5
        const Q t204 = c[2] * t77;
        const Q t205 = c[3] * t76;
        const Q t206 = t204 + t205;
        // complex block of 3
        const Q t207 = t203 + t206;
        // complex block of 2
        const Q t208 = t196 - t207;
        const Q t209 = shuffled<1, 0, 3, 2>(t208);
        // complex block of 31, multiplier 2
        const Q t210 = Q(-c[12], c[12], -c[12], c[12]) * t209;
        const Q t211 = shuffled<1, 0, 3, 2>(t185);
        const Q t212 = Q(c[13], -c[13], c[13], -c[13]) * t211;
        const Q t213 = t210 + t212;
        // complex block of 3
        const Q t214 = c[4] * t165;
        const Q t215 = t169 - t214;
        const Q t216 = t202 - t199;
        const Q t217 = c[5] * t216;
        const Q t218 = t215 + t217;
        // complex block of 3
        const Q t219 = c[4] * t179;
        const Q t220 = t183 - t219;
        const Q t221 = t191 - t188;
        const Q t222 = c[5] * t221;
        const Q t223 = t220 + t222;
        // complex block of 2
        const Q t224 = t218 - t223;
        // complex block of 3
        const Q t225 = c[4] * t203;
        const Q t226 = t225 - t206;
        const Q t227 = t160 - t164;
        const Q t228 = c[5] * t227;
        const Q t229 = t226 - t228;
        // complex block of 3
        const Q t230 = c[4] * t192;
        const Q t231 = t230 - t195;
        const Q t232 = t174 - t178;
        const Q t233 = c[5] * t232;
        const Q t234 = t231 - t233;
        // complex block of 2
        const Q t235 = t229 - t234;
        const Q t236 = shuffled<1, 0, 3, 2>(t224);
        // complex block of 31, multiplier 2
        const Q t237 = c[14] * t236;
        const Q t238 = shuffled<1, 0, 3, 2>(t235);
        const Q t239 = c[15] * t238;
        const Q t240 = t237 + t239;
        // complex block of 3
        const Q t241 = t215 - t217;
        // complex block of 3
        const Q t242 = t220 - t222;
        // complex block of 2
        const Q t243 = t241 - t242;
        // complex block of 3
        const Q t244 = t226 + t228;
        // complex block of 3
        const Q t245 = t231 + t233;
        // complex block of 2
        const Q t246 = t244 - t245;
        const Q t247 = shuffled<1, 0, 3, 2>(t243);
        // complex block of 31, multiplier 2
        const Q t248 = c[16] * t247;
        const Q t249 = shuffled<1, 0, 3, 2>(t246);
        const Q t250 = c[17] * t249;
        const Q t251 = t248 + t250;
        const Q t252 = shuffled<0, 5, 2, 7>(t240, t251);
        const Q t253 = shuffled<0, 5, 2, 7>(t251, t240);
        // complex block of 3
        const Q t254 = t252 - t253;
        const Q t255 = c[4] * t254;
        const Q t256 = t213 - t255;
        // complex block of 31, multiplier 2
        const Q t257 = Q(-c[17], c[17], -c[17], c[17]) * t247;
        const Q t258 = Q(c[16], -c[16], c[16], -c[16]) * t249;
        const Q t259 = t257 + t258;
        const Q t260 = Q(-c[15], c[15], -c[15], c[15]) * t236;
        const Q t261 = Q(c[14], -c[14], c[14], -c[14]) * t238;
        const Q t262 = t260 + t261;
        // complex block of 3
        const Q t263 = t259 + t262;
        const Q t264 = c[5] * t263;
        const Q t265 = t256 - t264;
        // spectrum block of 5
        const Q t266 = c[0] * t156;
        const P t267 = part<0>(t266);
        const V t268 = part<0>(t267);
        const Q t269 = c[1] * t265;
        const P t270 = part<0>(t269);
        const V t271 = part<0>(t270);
        const V t272 = t268 - t271;
        // real block of 3
        const Q t273 = t12 + t3;
        // real block of 3
        const Q t274 = t27 + t18;
        // real block of 2
        const Q t275 = t273 - t274;
        const Q t276 = shuffled<1, 0, 3, 2>(t30);
        // complex block of 31, multiplier 2
        const Q t277 = c[30] * t276;
        const Q t278 = shuffled<1, 0, 3, 2>(t35);
        const Q t279 = c[31] * t278;
        const Q t280 = t277 + t279;
        // spectrum block of 3
        const Q t281 = Q(-c[4], c[4], -c[4], c[4]) * t280;
        const Q t282 = shuffled<1, 0, 3, 2>(t275);
        // complex block of 31, multiplier 2
        const Q t283 = Q(c[32], -c[32], c[32], -c[32]) * t282;
        // spectrum block of 3
        const Q t284 = t281 + t283;
        const P t285 = part<0>(t276);
        const V t286 = part<0>(t285);
        const V t287 = c[33] * t286;
        const P t288 = part<0>(t35);
        const V t289 = part<0>(t288);
        // spectrum block of 3
        const V t290 = c[34] * t289;
        const P t291 = joined(t287, t290);
        const P t292 = part<1>(t276);
        const V t293 = part<0>(t292);
        // spectrum block of 3
        const V t294 = c[33] * t293;
        const P t295 = part<1>(t35);
        const V t296 = part<0>(t295);
        // spectrum block of 3
        const V t297 = c[34] * t296;
        const P t298 = joined(t294, t297);
        const Q t299 = joined(t291, t298);
        const V t300 = part<1>(t288);
        // spectrum block of 3
        const V t301 = c[34] * t300;
        const V t302 = part<1>(t285);
        // spectrum block of 3
        const V t303 = c[33] * t302;
        const P t304 = joined(t301, t303);
        const V t305 = part<1>(t295);
        // spectrum block of 3
        const V t306 = c[34] * t305;
        const V t307 = part<1>(t292);
        // spectrum block of 3
        const V t308 = c[33] * t307;
        const P t309 = joined(t306, t308);
        const Q t310 = joined(t304, t309);
        // spectrum block of 3
        const Q t311 = t299 - t310;
        const Q t312 = t284 + t311;
        const P t313 = part<0>(t312);
        const V t314 = part<0>(t313);
        // spectrum block of 5
        const V t315 = t272 + t314;
        // complex block of 31, multiplier 2
        const Q t316 = c[13] * t209;
        const Q t317 = c[12] * t211;
        const Q t318 = t316 + t317;
        // complex block of 3
        const Q t319 = t259 - t262;
        const Q t320 = Q(c[4], -c[4], c[4], -c[4]) * t319;
        const Q t321 = t318 + t320;
        const Q t322 = t251 + t240;
        const Q t323 = c[5] * t322;
        const Q t324 = t321 + t323;
        // complex block of 3
        const Q t325 = t153 + t150;
        // complex block of 31, multiplier 2
        const Q t326 = Q(-c[6], c[6], -c[6], c[6]) * t102;
        const Q t327 = Q(c[7], -c[7], c[7], -c[7]) * t100;
        const Q t328 = t326 + t327;
        // complex block of 3
        const Q t329 = c[4] * t325;
        const Q t330 = t329 + t328;
        const Q t331 = t142 + t131;
        const Q t332 = Q(-c[5], c[5], -c[5], c[5]) * t331;
        const Q t333 = t330 + t332;
        // spectrum block of 5
        const Q t334 = c[2] * t324;
        const P t335 = part<0>(t334);
        const V t336 = part<0>(t335);
        const Q t337 = c[3] * t333;
        const P t338 = part<0>(t337);
        const V t339 = part<0>(t338);
        const V t340 = t336 - t339;
        const V t341 = t315 - t340;
        const V t342 = t315 + t340;
        const Q t343 = c[1] * t156;
        const P t344 = part<0>(t343);
        const V t345 = part<0>(t344);
        const V t346 = t314 - t345;
        const V t347 = part<1>(t313);
        const V t348 = part<1>(t267);
        // spectrum block of 5
        const V t349 = t347 - t348;
        const V t350 = part<1>(t270);
        const V t351 = t349 - t350;
        const V t352 = part<1>(t338);
        const V t353 = part<1>(t335);
        const V t354 = t352 + t353;
        const V t355 = t351 + t354;
        const V t356 = t351 - t354;
        const V t357 = part<1>(t344);
        // spectrum block of 5
        const Q t358 = c[0] * t265;
        const P t359 = part<0>(t358);
        const V t360 = part<1>(t359);
        // spectrum block of 5
        const V t361 = t357 + t360;
        // real block of 2
        const Q t362 = t273 + t274;
        // complex block of 2
        const Q t363 = t14 + t29;
        const Q t364 = t34 + t33;
        // complex block of 2
        const Q t365 = t49 + t63;
        const Q t366 = t81 + t98;
        // complex block of 2
        const Q t367 = t109 + t114;
        const Q t368 = t120 + t125;
        // complex block of 2
        const Q t369 = t132 + t133;
        const Q t370 = t135 + t136;
        // complex block of 2
        const Q t371 = t170 + t184;
        const Q t372 = t207 + t196;
        // complex block of 2
        const Q t373 = t218 + t223;
        const Q t374 = t229 + t234;
        // complex block of 2
        const Q t375 = t241 + t242;
        const Q t376 = t244 + t245;
        const Q x0_31 = io.pairs(0, 31);
        // complex block of 31, multiplier 2
        const Q t377 = x0_31 + t362;
        const Q t378 = c[35] * t362;
        const Q t379 = x0_31 - t378;
        const Q t380 = c[18] * t375;
        const Q t381 = c[19] * t376;
        const Q t382 = t380 + t381;
        const Q t383 = c[19] * t375;
        const Q t384 = c[18] * t376;
        const Q t385 = t383 - t384;
        const Q t386 = c[20] * t369;
        const Q t387 = c[21] * t370;
        const Q t388 = t386 + t387;
        const Q t389 = c[21] * t369;
        const Q t390 = c[20] * t370;
        const Q t391 = t389 - t390;
        const Q t392 = c[22] * t365;
        const Q t393 = c[23] * t366;
        const Q t394 = t392 - t393;
        const Q t395 = c[22] * t366;
        const Q t396 = c[23] * t365;
        const Q t397 = t395 + t396;
        const Q t398 = c[24] * t373;
        const Q t399 = c[25] * t374;
        const Q t400 = t398 - t399;
        const Q t401 = c[24] * t374;
        const Q t402 = c[25] * t373;
        const Q t403 = t401 + t402;
        const Q t404 = c[36] * t363;
        const Q t405 = c[37] * t364;
        const Q t406 = t404 + t405;
        const Q t407 = c[26] * t372;
        const Q t408 = c[27] * t371;
        const Q t409 = t407 - t408;
        const Q t410 = c[27] * t372;
        const Q t411 = c[26] * t371;
        const Q t412 = t410 + t411;
        const Q t413 = c[28] * t367;
        const Q t414 = c[29] * t368;
        const Q t415 = t413 + t414;
        const Q t416 = c[29] * t367;
        const Q t417 = c[28] * t368;
        const Q t418 = t416 - t417;
        const P t419 = part<1>(t266);
        const V t420 = part<0>(t419);
        const P t421 = part<1>(t269);
        const V t422 = part<0>(t421);
        // spectrum block of 5
        const V t423 = t420 - t422;
        const P t424 = part<1>(t312);
        const V t425 = part<0>(t424);
        const V t426 = t423 + t425;
        const P t427 = part<1>(t334);
        const V t428 = part<0>(t427);
        const P t429 = part<1>(t337);
        const V t430 = part<0>(t429);
        const V t431 = t428 - t430;
        const V t432 = t426 - t431;
        const V t433 = t426 + t431;
        const P t434 = part<1>(t343);
        const V t435 = part<0>(t434);
        const V t436 = t425 - t435;
        // spectrum block of 3
        const Q t437 = t406 + t379;
        const Q t438 = c[4] * t406;
        const Q t439 = t379 - t438;
        const Q t440 = c[38] * t363;
        const Q t441 = c[39] * t364;
        const Q t442 = t440 - t441;
        const Q t443 = t439 - t442;
        const Q t444 = t439 + t442;
        const Q t445 = flipped<1, 0, 1, 0>(t318);
        // complex block of 3
        const Q t446 = t319 + t445;
        const Q t447 = t254 + t213;
        const Q t448 = shuffled<0, 5, 2, 7>(t323, t321);
        const Q t449 = shuffled<0, 5, 2, 7>(t321, t323);
        const Q t450 = t448 - t449;
        const Q t451 = t256 + t264;
        // complex block of 3
        const Q t452 = t418 + t391;
        const Q t453 = t415 + t388;
        const Q t454 = t391 - t418;
        const Q t455 = t415 - t388;
        const Q t456 = t397 - t452;
        const Q t457 = t453 + t394;
        const Q t458 = c[4] * t452;
        const Q t459 = t458 + t397;
        const Q t460 = c[4] * t453;
        const Q t461 = t394 - t460;
        const Q t462 = c[5] * t455;
        const Q t463 = t459 + t462;
        const Q t464 = c[5] * t454;
        const Q t465 = t461 - t464;
        const Q t466 = t459 - t462;
        const Q t467 = t461 + t464;
        // complex block of 3
        const Q t468 = t328 - t325;
        const Q t469 = flipped<0, 1, 0, 1>(t104);
        const Q t470 = t145 + t469;
        const Q t471 = t330 - t332;
        const Q t472 = shuffled<0, 5, 2, 7>(t147, t155);
        const Q t473 = shuffled<0, 5, 2, 7>(t155, t147);
        const Q t474 = t472 - t473;
        // complex block of 3
        const Q t475 = t403 + t385;
        const Q t476 = t400 - t382;
        const Q t477 = t403 - t385;
        const Q t478 = t400 + t382;
        const Q t479 = t475 + t412;
        const Q t480 = t476 + t409;
        const Q t481 = c[4] * t475;
        const Q t482 = t412 - t481;
        const Q t483 = c[4] * t476;
        const Q t484 = t409 - t483;
        const Q t485 = c[5] * t478;
        const Q t486 = t482 + t485;
        const Q t487 = c[5] * t477;
        const Q t488 = t484 - t487;
        const Q t489 = t482 - t485;
        const Q t490 = t484 + t487;
        const Q t491 = flipped<0, 1, 0, 1>(t283);
        // spectrum block of 3
        const Q t492 = t280 + t491;
        const Q t493 = t284 - t311;
        // spectrum block of 5
        const Q t494 = t457 + t480;
        const Q t495 = t494 + t437;
        const Q t496 = c[0] * t457;
        const Q t497 = c[1] * t480;
        const Q t498 = t496 - t497;
        const Q t499 = t498 + t437;
        const Q t500 = c[3] * t456;
        const Q t501 = c[2] * t479;
        const Q t502 = t500 + t501;
        const Q t503 = t499 - t502;
        const Q t504 = t499 + t502;
        const Q t505 = c[1] * t457;
        const Q t506 = t437 - t505;
        const Q t507 = c[0] * t480;
        const Q t508 = t506 + t507;
        const Q t509 = c[2] * t456;
        const Q t510 = c[3] * t479;
        const Q t511 = t509 - t510;
        const Q t512 = t508 - t511;
        const Q t513 = t508 + t511;
        // spectrum block of 5
        const Q t514 = t470 + t447;
        const Q t515 = flipped<0, 1, 0, 1>(t492);
        const Q t516 = t514 + t515;
        const Q t517 = c[0] * t470;
        const Q t518 = c[1] * t447;
        const Q t519 = t517 - t518;
        const Q t520 = t519 + t515;
        const Q t521 = c[3] * t468;
        const Q t522 = c[2] * t446;
        const Q t523 = t521 + t522;
        const Q t524 = t520 + t523;
        const Q t525 = t520 - t523;
        const Q t526 = Q(-c[1], c[1], -c[1], c[1]) * t470;
        const Q t527 = t492 + t526;
        const Q t528 = c[0] * t447;
        const Q t529 = flipped<0, 1, 0, 1>(t527);
        const Q t530 = t528 + t529;
        const Q t531 = c[3] * t446;
        const Q t532 = c[2] * t468;
        const Q t533 = t531 - t532;
        const Q t534 = t530 - t533;
        const Q t535 = t530 + t533;
        // spectrum block of 2
        const Q t536 = t495 + t516;
        const Q t537 = t495 - t516;
        // spectrum block of 2
        const Q t538 = t503 + t524;
        const Q t539 = t503 - t524;
        // spectrum block of 2
        const Q t540 = t512 + t534;
        const Q t541 = t512 - t534;
        // spectrum block of 2
        const Q t542 = t513 + t535;
        const Q t543 = t513 - t535;
        // spectrum block of 2
        const Q t544 = t504 + t525;
        const Q t545 = t504 - t525;
        // spectrum block of 5
        const Q t546 = t465 + t488;
        const Q t547 = t546 + t443;
        const Q t548 = c[0] * t465;
        const Q t549 = c[1] * t488;
        const Q t550 = t548 - t549;
        const Q t551 = t550 + t443;
        const Q t552 = c[3] * t463;
        const Q t553 = c[2] * t486;
        const Q t554 = t552 + t553;
        const Q t555 = t551 - t554;
        const Q t556 = t551 + t554;
        const Q t557 = c[1] * t465;
        const Q t558 = t443 - t557;
        const Q t559 = c[0] * t488;
        const Q t560 = t558 + t559;
        const Q t561 = c[2] * t463;
        const Q t562 = c[3] * t486;
        const Q t563 = t561 - t562;
        const Q t564 = t560 - t563;
        const Q t565 = t560 + t563;
        const Q t566 = flipped<0, 1, 0, 1>(t156);
        // spectrum block of 5
        const Q t567 = t265 + t566;
        const Q t568 = t567 + t312;
        const V t569 = part<1>(t424);
        const V t570 = part<1>(t419);
        // spectrum block of 5
        const V t571 = t569 - t570;
        const V t572 = part<1>(t421);
        const V t573 = t571 - t572;
        const V t574 = part<1>(t429);
        const V t575 = part<1>(t427);
        const V t576 = t574 + t575;
        const V t577 = t573 + t576;
        const V t578 = t573 - t576;
        const V t579 = part<1>(t434);
        const P t580 = part<1>(t358);
        const V t581 = part<1>(t580);
        const V t582 = t579 + t581;
        const P t583 = joined(t346, t361);
        const P t584 = joined(t436, t582);
        const Q t585 = joined(t583, t584);
        const Q t586 = shuffled<0, 5, 2, 7>(t358, t312);
        // spectrum block of 5
        const Q t587 = t585 + t586;
        const Q t588 = c[3] * t324;
        const Q t589 = Q(c[2], -c[2], c[2], -c[2]) * t333;
        const Q t590 = t588 + t589;
        const Q t591 = flipped<0, 1, 0, 1>(t590);
        const Q t592 = t587 + t591;
        const Q t593 = t587 - t591;
        // spectrum block of 2
        const Q t594 = t547 + t568;
        const Q t595 = t547 - t568;
        const P t596 = joined(t341, t355);
        const P t597 = joined(t432, t577);
        const Q t598 = joined(t596, t597);
        // spectrum block of 2
        const Q t599 = t555 + t598;
        const Q t600 = t555 - t598;
        // spectrum block of 2
        const Q t601 = t564 + t592;
        const Q t602 = t564 - t592;
        // spectrum block of 2
        const Q t603 = t565 + t593;
        const Q t604 = t565 - t593;
        const P t605 = joined(t342, t356);
        const P t606 = joined(t433, t578);
        const Q t607 = joined(t605, t606);
        // spectrum block of 2
        const Q t608 = t556 + t607;
        const Q t609 = t556 - t607;
        // spectrum block of 5
        const Q t610 = t467 + t490;
        const Q t611 = t610 + t444;
        const Q t612 = c[0] * t467;
        const Q t613 = c[1] * t490;
        const Q t614 = t612 - t613;
        const Q t615 = t614 + t444;
        const Q t616 = c[3] * t466;
        const Q t617 = c[2] * t489;
        const Q t618 = t616 + t617;
        const Q t619 = t615 - t618;
        const Q t620 = t615 + t618;
        const Q t621 = c[1] * t467;
        const Q t622 = t444 - t621;
        const Q t623 = c[0] * t490;
        const Q t624 = t622 + t623;
        const Q t625 = c[2] * t466;
        const Q t626 = c[3] * t489;
        const Q t627 = t625 - t626;
        const Q t628 = t624 - t627;
        const Q t629 = t624 + t627;
        // spectrum block of 5
        const Q t630 = t474 + t451;
        const Q t631 = t630 + t493;
        const Q t632 = c[0] * t474;
        const Q t633 = c[1] * t451;
        const Q t634 = t632 - t633;
        const Q t635 = t634 + t493;
        const Q t636 = c[3] * t471;
        const Q t637 = c[2] * t450;
        const Q t638 = t636 + t637;
        const Q t639 = t635 + t638;
        const Q t640 = t635 - t638;
        const Q t641 = c[1] * t474;
        const Q t642 = t493 - t641;
        const Q t643 = c[0] * t451;
        const Q t644 = t642 + t643;
        const Q t645 = c[3] * t450;
        const Q t646 = c[2] * t471;
        const Q t647 = t645 - t646;
        const Q t648 = t644 - t647;
        const Q t649 = t644 + t647;
        // spectrum block of 2
        const Q t650 = t611 + t631;
        const Q t651 = t611 - t631;
        // spectrum block of 2
        const Q t652 = t619 + t639;
        const Q t653 = t619 - t639;
        // spectrum block of 2
        const Q t654 = t628 + t648;
        const Q t655 = t628 - t648;
        // spectrum block of 2
        const Q t656 = t629 + t649;
        const Q t657 = t629 - t649;
        // spectrum block of 2
        const Q t658 = t620 + t640;
        const Q t659 = t620 - t640;
        const Q t660 = shuffled<0, 1, 4, 5>(t377, t536);
        const Q t661 = shuffled<2, 3, 6, 7>(t377, t536);
        // complex block of 2
        const Q t662 = t660 + t661;
        io.pairs(0, 2, t662);
        const Q t663 = t660 - t661;
        io.pairs(31, 33, t663);
        const Q t664 = shuffled<0, 1, 4, 5>(t538, t659);
        const Q t665 = shuffled<2, 3, 6, 7>(t538, t659);
        // complex block of 2
        const Q t666 = t664 + t665;
        io.pairs(4, 6, t666);
        const Q t667 = t664 - t665;
        io.pairs(35, 37, t667);
        const Q t668 = shuffled<0, 1, 4, 5>(t540, t594);
        const Q t669 = shuffled<2, 3, 6, 7>(t540, t594);
        // complex block of 2
        const Q t670 = t668 + t669;
        io.pairs(8, 10, t670);
        const Q t671 = t668 - t669;
        io.pairs(39, 41, t671);
        const Q t672 = shuffled<0, 1, 4, 5>(t651, t654);
        const Q t673 = shuffled<2, 3, 6, 7>(t651, t654);
        // complex block of 2
        const Q t674 = t672 + t673;
        io.pairs(12, 14, t674);
        const Q t675 = t672 - t673;
        io.pairs(43, 45, t675);
        const Q t676 = shuffled<0, 1, 4, 5>(t542, t603);
        const Q t677 = shuffled<2, 3, 6, 7>(t542, t603);
        // complex block of 2
        const Q t678 = t676 + t677;
        io.pairs(16, 18, t678);
        const Q t679 = t676 - t677;
        io.pairs(47, 49, t679);
        const Q t680 = shuffled<0, 1, 4, 5>(t599, t602);
        const Q t681 = shuffled<2, 3, 6, 7>(t599, t602);
        // complex block of 2
        const Q t682 = t680 + t681;
        io.pairs(20, 22, t682);
        const Q t683 = t680 - t681;
        io.pairs(51, 53, t683);
        const Q t684 = shuffled<0, 1, 4, 5>(t653, t609);
        const Q t685 = shuffled<2, 3, 6, 7>(t653, t609);
        // complex block of 2
        const Q t686 = t684 + t685;
        io.pairs(24, 26, t686);
        const Q t687 = t684 - t685;
        io.pairs(55, 57, t687);
        const Q t688 = shuffled<0, 1, 4, 5>(t656, t545);
        const Q t689 = shuffled<2, 3, 6, 7>(t656, t545);
        // complex block of 2
        const Q t690 = t688 + t689;
        io.pairs(28, 30, t690);
        const Q t691 = t688 - t689;
        io.pairs(59, 61, t691);
        const Q t692 = shuffled<0, 1, 4, 5>(t544, t657);
        const Q t693 = shuffled<2, 3, 6, 7>(t544, t657);
        // complex block of 2
        const Q t694 = t692 + t693;
        io.pairs(32, 34, t694);
        const Q t695 = t692 - t693;
        io.pairs(1, 3, t695);
        const Q t696 = shuffled<0, 1, 4, 5>(t608, t652);
        const Q t697 = shuffled<2, 3, 6, 7>(t608, t652);
        // complex block of 2
        const Q t698 = t696 + t697;
        io.pairs(36, 38, t698);
        const Q t699 = t696 - t697;
        io.pairs(5, 7, t699);
        const Q t700 = shuffled<0, 1, 4, 5>(t601, t600);
        const Q t701 = shuffled<2, 3, 6, 7>(t601, t600);
        // complex block of 2
        const Q t702 = t700 + t701;
        io.pairs(40, 42, t702);
        const Q t703 = t700 - t701;
        io.pairs(9, 11, t703);
        const Q t704 = shuffled<0, 1, 4, 5>(t604, t543);
        const Q t705 = shuffled<2, 3, 6, 7>(t604, t543);
        // complex block of 2
        const Q t706 = t704 + t705;
        io.pairs(44, 46, t706);
        const Q t707 = t704 - t705;
        io.pairs(13, 15, t707);
        const Q t708 = shuffled<0, 1, 4, 5>(t655, t650);
        const Q t709 = shuffled<2, 3, 6, 7>(t655, t650);
        // complex block of 2
        const Q t710 = t708 + t709;
        io.pairs(48, 50, t710);
        const Q t711 = t708 - t709;
        io.pairs(17, 19, t711);
        const Q t712 = shuffled<0, 1, 4, 5>(t595, t541);
        const Q t713 = shuffled<2, 3, 6, 7>(t595, t541);
        // complex block of 2
        const Q t714 = t712 + t713;
        io.pairs(52, 54, t714);
        const Q t715 = t712 - t713;
        io.pairs(21, 23, t715);
        const Q t716 = shuffled<0, 1, 4, 5>(t658, t539);
        const Q t717 = shuffled<2, 3, 6, 7>(t658, t539);
        // complex block of 2
        const Q t718 = t716 + t717;
        io.pairs(56, 58, t718);
        const Q t719 = t716 - t717;
        io.pairs(25, 27, t719);
        const P t720 = part<0>(t537);
        const P t721 = part<1>(t537);
        // complex block of 2
        const P t722 = t720 + t721;
        io.pair(60, t722);
        const P t723 = t720 - t721;
        io.pair(29, t723);
    }
};

}  // namespace zulg
