// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 57.
// Complex DFT of 57 points, prime-factor, order 19, 3; two lines of a stage to a register.
// 180 sums, 156 differences, 186 products of registers, which do the 2170 steps of the graph, those with
// `scale` included; 111 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<57> {
    static constexpr int steps = 2170;  // with `scale`
    static constexpr double inverseRoot = 0.13245323570650439;  // 1/sqrt(57), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.3937592850674352,  // c[6]: Q[3] of 19
        0.28199561460730244,  // c[7]: P[3] of 19
        0.47339199623771827,  // c[8]: P[6] of 19
        0.10231284930367265,  // c[9]: -Q[6] of 19
        0.011219473461650014,  // c[10]: Q[1] of 19
        0.48419213608836237,  // c[11]: P[1] of 19
        0.235501645151975,  // c[12]: P[8] of 19
        0.4232102035221754,  // c[13]: Q[8] of 19
        0.4483141527641826,  // c[14]: -Q[2] of 19
        0.18325479984409965,  // c[15]: -P[2] of 19
        0.19002677048035677,  // c[16]: Q[7] of 19
        0.4454859456092568,  // c[17]: P[7] of 19
        0.0768648721323888,  // c[18]: P[4] of 19
        0.4781837436243932,  // c[19]: Q[4] of 19
        0.48432200167201295,  // c[20]: Q[5] of 19
        0.0003161186210583505,  // c[21]: -P[5] of 19
        0.8528685319524432,  // c[22]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.1503837331804353,  // c[23]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.29619813272602386,  // c[24]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[25]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: -beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x18_37 = io.pairs(18, 37);
        const Q x39_1 = io.pairs(39, 1);
        // real block of 2
        const Q t0 = x18_37 + x39_1;
        const Q t1 = x18_37 - x39_1;
        const Q x27_46 = io.pairs(27, 46);
        const Q x30_49 = io.pairs(30, 49);
        // real block of 2
        const Q t2 = x27_46 + x30_49;
        const Q t3 = x27_46 - x30_49;
        // real block of 3, multiplier 2
        const Q t4 = t2 + t0;
        const Q t5 = t2 - t0;
        // real block of 3, multiplier 2
        const Q t6 = t3 + t1;
        const Q t7 = t3 - t1;
        const Q x15_34 = io.pairs(15, 34);
        const Q x42_4 = io.pairs(42, 4);
        // real block of 2
        const Q t8 = x15_34 + x42_4;
        const Q t9 = x15_34 - x42_4;
        const Q x51_13 = io.pairs(51, 13);
        const Q x6_25 = io.pairs(6, 25);
        // real block of 2
        const Q t10 = x51_13 + x6_25;
        const Q t11 = x51_13 - x6_25;
        // real block of 3, multiplier 2
        const Q t12 = t10 + t8;
        const Q t13 = t10 - t8;
        // real block of 3, multiplier 2
        const Q t14 = t11 + t9;
        const Q t15 = t11 - t9;
        const Q x12_31 = io.pairs(12, 31);
        const Q x45_7 = io.pairs(45, 7);
        // real block of 2
        const Q t16 = x12_31 + x45_7;
        const Q t17 = x12_31 - x45_7;
        const Q x48_10 = io.pairs(48, 10);
        const Q x9_28 = io.pairs(9, 28);
        // real block of 2
        const Q t18 = x48_10 + x9_28;
        const Q t19 = x48_10 - x9_28;
        // real block of 3, multiplier 2
        const Q t20 = t4 + t16;
        // real block of 3, multiplier 2
        const Q t21 = t12 + t18;
        // real block of 3, multiplier 2
        const Q t22 = t20 + t21;
        const Q t23 = t20 - t21;
        // real block of 3, multiplier 2
        const Q t24 = c[0] * t4;
        const Q t25 = t16 - t24;
        // real block of 9, multiplier 2
        const Q t26 = c[2] * t25;
        // real block of 3, multiplier 2
        const Q t27 = c[1] * t5;
        // real block of 9, multiplier 2
        const Q t28 = c[3] * t27;
        const Q t29 = t26 + t28;
        const Q t30 = c[2] * t27;
        const Q t31 = c[3] * t25;
        const Q t32 = t30 - t31;
        // real block of 3, multiplier 2
        const Q t33 = c[0] * t12;
        const Q t34 = t18 - t33;
        const Q t35 = c[1] * t13;
        // real block of 9, multiplier 2
        const Q t36 = c[4] * t35;
        const Q t37 = c[5] * t34;
        const Q t38 = t36 - t37;
        const Q t39 = c[5] * t35;
        const Q t40 = c[4] * t34;
        const Q t41 = t39 + t40;
        // real block of 3, multiplier 2
        const Q t42 = t6 + t17;
        // real block of 3, multiplier 2
        const Q t43 = t14 + t19;
        // real block of 3, multiplier 2
        const Q t44 = t42 + t43;
        const Q t45 = t42 - t43;
        // real block of 3, multiplier 2
        const Q t46 = c[0] * t6;
        const Q t47 = t17 - t46;
        // real block of 9, multiplier 2
        const Q t48 = c[2] * t47;
        // real block of 3, multiplier 2
        const Q t49 = c[1] * t7;
        // real block of 9, multiplier 2
        const Q t50 = c[3] * t49;
        const Q t51 = t48 + t50;
        const Q t52 = c[2] * t49;
        const Q t53 = c[3] * t47;
        const Q t54 = t52 - t53;
        // real block of 3, multiplier 2
        const Q t55 = c[0] * t14;
        const Q t56 = t19 - t55;
        const Q t57 = c[1] * t15;
        // real block of 9, multiplier 2
        const Q t58 = c[4] * t57;
        const Q t59 = c[5] * t56;
        const Q t60 = t58 - t59;
        const Q t61 = c[5] * t57;
        const Q t62 = c[4] * t56;
        const Q t63 = t61 + t62;
        const Q x3_22 = io.pairs(3, 22);
        const Q x54_16 = io.pairs(54, 16);
        // real block of 2
        const Q t64 = x3_22 + x54_16;
        const Q t65 = x3_22 - x54_16;
        const Q x21_40 = io.pairs(21, 40);
        const Q x36_55 = io.pairs(36, 55);
        // real block of 2
        const Q t66 = x21_40 + x36_55;
        const Q t67 = x21_40 - x36_55;
        const Q x33_52 = io.pairs(33, 52);
        const Q x24_43 = io.pairs(24, 43);
        // real block of 2
        const Q t68 = x33_52 + x24_43;
        const Q t69 = x33_52 - x24_43;
        // real block of 3, multiplier 2
        const Q t70 = t66 + t68;
        // real block of 3, multiplier 2
        const Q t71 = t67 + t69;
        // real block of 3, multiplier 2
        const Q t72 = t66 - t68;
        const Q t73 = t70 + t64;
        const Q t74 = c[0] * t70;
        const Q t75 = t64 - t74;
        // real block of 3, multiplier 2
        const Q t76 = t67 - t69;
        const Q t77 = t71 + t65;
        const Q t78 = c[0] * t71;
        const Q t79 = t65 - t78;
        // real block of 3, multiplier 2
        const Q t80 = t22 + t73;
        // real block of 3, multiplier 2
        const Q t81 = t44 + t77;
        const Q x0_19 = io.pairs(0, 19);
        // complex block of 19, multiplier 3
        const Q t82 = c[26] * t80;
        const Q t83 = x0_19 - t82;
        const Q t84 = shuffled<1, 0, 3, 2>(t81);
        const Q t85 = Q(-c[27], c[27], -c[27], c[27]) * t84;
        // spectrum block of 2
        const Q t86 = t83 + t85;
        const Q t87 = t83 - t85;
        // real block of 3, multiplier 2
        const Q t88 = c[0] * t22;
        const Q t89 = t73 - t88;
        // real block of 3, multiplier 2
        const Q t90 = c[0] * t44;
        const Q t91 = t77 - t90;
        const Q t92 = shuffled<1, 0, 3, 2>(t91);
        // complex block of 19, multiplier 3
        const Q t93 = c[6] * t92;
        // real block of 3, multiplier 2
        const Q t94 = c[1] * t45;
        const Q t95 = shuffled<1, 0, 3, 2>(t94);
        // complex block of 19, multiplier 3
        const Q t96 = c[7] * t95;
        const Q t97 = t93 + t96;
        const Q t98 = c[8] * t89;
        // real block of 3, multiplier 2
        const Q t99 = c[1] * t23;
        // complex block of 19, multiplier 3
        const Q t100 = c[9] * t99;
        const Q t101 = t98 + t100;
        const Q t102 = flipped<0, 1, 0, 1>(t97);
        // complex block of 2
        const Q t103 = t101 + t102;
        const Q t104 = t101 - t102;
        // complex block of 19, multiplier 3
        const Q t105 = Q(-c[6], c[6], -c[6], c[6]) * t95;
        const Q t106 = Q(c[7], -c[7], c[7], -c[7]) * t92;
        const Q t107 = t105 + t106;
        const Q t108 = c[8] * t99;
        const Q t109 = c[9] * t89;
        const Q t110 = t108 - t109;
        // complex block of 3, multiplier 2
        const Q t111 = t29 + t38;
        const Q t112 = t111 + t75;
        const Q t113 = t32 + t41;
        const Q t114 = c[0] * t111;
        const Q t115 = t75 - t114;
        const Q t116 = c[1] * t113;
        const Q t117 = t115 + t116;
        const Q t118 = t115 - t116;
        const Q t119 = t32 - t41;
        // real block of 3, multiplier 2
        const Q t120 = c[1] * t72;
        // complex block of 3, multiplier 2
        const Q t121 = t119 + t120;
        const Q t122 = t29 - t38;
        const Q t123 = c[0] * t119;
        const Q t124 = t120 - t123;
        const Q t125 = c[1] * t122;
        const Q t126 = t124 - t125;
        const Q t127 = t124 + t125;
        // complex block of 3, multiplier 2
        const Q t128 = t51 + t60;
        const Q t129 = t128 + t79;
        const Q t130 = t54 + t63;
        const Q t131 = c[0] * t128;
        const Q t132 = t79 - t131;
        const Q t133 = c[1] * t130;
        const Q t134 = t132 + t133;
        const Q t135 = t132 - t133;
        const Q t136 = t54 - t63;
        // real block of 3, multiplier 2
        const Q t137 = c[1] * t76;
        // complex block of 3, multiplier 2
        const Q t138 = t136 + t137;
        const Q t139 = t51 - t60;
        const Q t140 = c[0] * t136;
        const Q t141 = t137 - t140;
        const Q t142 = c[1] * t139;
        const Q t143 = t141 - t142;
        const Q t144 = t141 + t142;
        const Q t145 = shuffled<1, 0, 3, 2>(t135);
        // complex block of 19, multiplier 3
        const Q t146 = c[10] * t145;
        const Q t147 = shuffled<1, 0, 3, 2>(t144);
        const Q t148 = c[11] * t147;
        const Q t149 = t146 + t148;
        const Q t150 = c[12] * t118;
        const Q t151 = c[13] * t127;
        const Q t152 = t150 - t151;
        const Q t153 = flipped<0, 1, 0, 1>(t149);
        // complex block of 2
        const Q t154 = t152 + t153;
        const Q t155 = t152 - t153;
        // complex block of 19, multiplier 3
        const Q t156 = Q(-c[10], c[10], -c[10], c[10]) * t147;
        const Q t157 = Q(c[11], -c[11], c[11], -c[11]) * t145;
        const Q t158 = t156 + t157;
        const Q t159 = c[12] * t127;
        const Q t160 = c[13] * t118;
        const Q t161 = t159 + t160;
        // complex block of 2
        const Q t162 = t161 - t158;
        const Q t163 = t161 + t158;
        // complex block of 19, multiplier 3
        const Q t164 = c[14] * t121;
        const Q t165 = c[15] * t112;
        const Q t166 = t164 - t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t129);
        const Q t168 = c[16] * t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t138);
        const Q t170 = c[17] * t169;
        const Q t171 = t168 + t170;
        const Q t172 = flipped<0, 1, 0, 1>(t171);
        // complex block of 2
        const Q t173 = t166 + t172;
        const Q t174 = t166 - t172;
        // complex block of 19, multiplier 3
        const Q t175 = c[15] * t121;
        const Q t176 = c[14] * t112;
        const Q t177 = t175 + t176;
        const Q t178 = Q(-c[16], c[16], -c[16], c[16]) * t169;
        const Q t179 = Q(c[17], -c[17], c[17], -c[17]) * t167;
        const Q t180 = t178 + t179;
        // complex block of 2
        const Q t181 = t177 + t180;
        const Q t182 = t180 - t177;
        // complex block of 19, multiplier 3
        const Q t183 = c[18] * t117;
        const Q t184 = c[19] * t126;
        const Q t185 = t183 + t184;
        const Q t186 = shuffled<1, 0, 3, 2>(t134);
        const Q t187 = c[20] * t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t143);
        const Q t189 = c[21] * t188;
        const Q t190 = t187 + t189;
        const Q t191 = flipped<0, 1, 0, 1>(t190);
        // complex block of 2
        const Q t192 = t185 + t191;
        const Q t193 = t185 - t191;
        // complex block of 19, multiplier 3
        const Q t194 = c[19] * t117;
        const Q t195 = c[18] * t126;
        const Q t196 = t194 - t195;
        const Q t197 = Q(-c[21], c[21], -c[21], c[21]) * t186;
        const Q t198 = Q(c[20], -c[20], c[20], -c[20]) * t188;
        const Q t199 = t197 + t198;
        // complex block of 2
        const Q t200 = t196 - t199;
        const Q t201 = t196 + t199;
        const Q x29_2 = io.pairs(29, 2);
        const Q x47_17 = io.pairs(47, 17);
        // real block of 2
        const Q t202 = x29_2 + x47_17;
        const Q t203 = x29_2 - x47_17;
        const Q x14_56 = io.pairs(14, 56);
        const Q x5_20 = io.pairs(5, 20);
        // real block of 2
        const Q t204 = x14_56 + x5_20;
        const Q t205 = x14_56 - x5_20;
        const Q x8_32 = io.pairs(8, 32);
        const Q x11_44 = io.pairs(11, 44);
        // real block of 2
        const Q t206 = x8_32 + x11_44;
        const Q t207 = x8_32 - x11_44;
        const P x53 = io.pair(53);
        const P x23 = io.pair(23);
        // real block of 2
        const P t208 = x53 + x23;
        const P t209 = x53 - x23;
        const Q t210 = shuffled<2, 3, 6, 7>(t202, t203);
        const Q t211 = shuffled<0, 1, 4, 5>(t204, t205);
        // real block of 3, multiplier 2
        const Q t212 = t210 + t211;
        const Q t213 = shuffled<0, 1, 4, 5>(t206, t207);
        const Q t214 = shuffled<2, 3, 6, 7>(t204, t205);
        // real block of 3, multiplier 2
        const Q t215 = t213 + t214;
        const Q t216 = t213 - t214;
        const Q t217 = shuffled<2, 3, 6, 7>(t206, t207);
        const Q t218 = joined(t208, t209);
        // real block of 3, multiplier 2
        const Q t219 = t217 + t218;
        const Q t220 = t217 - t218;
        const Q x41_50 = io.pairs(41, 50);
        const Q x35_26 = io.pairs(35, 26);
        // real block of 2
        const Q t221 = x41_50 + x35_26;
        const Q t222 = x41_50 - x35_26;
        // real block of 3, multiplier 2
        const Q t223 = t210 - t211;
        const Q t224 = shuffled<0, 1, 4, 5>(t221, t222);
        const Q t225 = t212 + t224;
        const Q t226 = c[0] * t212;
        const Q t227 = t224 - t226;
        const Q t228 = shuffled<2, 3, 6, 7>(t221, t222);
        // real block of 3, multiplier 2
        const Q t229 = t215 + t228;
        const Q t230 = shuffled<0, 1, 4, 5>(t202, t203);
        // real block of 3, multiplier 2
        const Q t231 = t219 + t230;
        // real block of 3, multiplier 2
        const Q t232 = t229 + t231;
        const Q t233 = t229 - t231;
        // real block of 3, multiplier 2
        const Q t234 = c[0] * t215;
        const Q t235 = t228 - t234;
        // real block of 9, multiplier 2
        const Q t236 = c[2] * t235;
        // real block of 3, multiplier 2
        const Q t237 = c[1] * t216;
        // real block of 9, multiplier 2
        const Q t238 = c[3] * t237;
        const Q t239 = t236 + t238;
        const Q t240 = c[2] * t237;
        const Q t241 = c[3] * t235;
        const Q t242 = t240 - t241;
        // real block of 3, multiplier 2
        const Q t243 = c[0] * t219;
        const Q t244 = t230 - t243;
        const Q t245 = c[1] * t220;
        // real block of 9, multiplier 2
        const Q t246 = c[4] * t245;
        const Q t247 = c[5] * t244;
        const Q t248 = t246 - t247;
        const Q t249 = c[5] * t245;
        const Q t250 = c[4] * t244;
        const Q t251 = t249 + t250;
        // real block of 3, multiplier 2
        const Q t252 = t232 + t225;
        const P x38 = io.pair(38);
        const P t253 = part<0>(t252);
        // complex block of 19, multiplier 3
        const P t254 = c[26] * t253;
        const P t255 = x38 - t254;
        const P t256 = part<1>(t252);
        const P t257 = shuffled<1, 0>(t256);
        const P t258 = P(-c[27], c[27]) * t257;
        // spectrum block of 2
        const P t259 = t255 + t258;
        const P t260 = t255 - t258;
        // real block of 3, multiplier 2
        const Q t261 = c[0] * t232;
        const Q t262 = t225 - t261;
        // complex block of 3, multiplier 2
        const Q t263 = t239 + t248;
        const Q t264 = t242 + t251;
        const Q t265 = t263 + t227;
        const Q t266 = c[0] * t263;
        const Q t267 = t227 - t266;
        const Q t268 = c[1] * t264;
        const Q t269 = t267 + t268;
        const Q t270 = t267 - t268;
        const Q t271 = t242 - t251;
        const Q t272 = t239 - t248;
        // real block of 3, multiplier 2
        const Q t273 = c[1] * t223;
        // complex block of 3, multiplier 2
        const Q t274 = t271 + t273;
        const Q t275 = c[0] * t271;
        const Q t276 = t273 - t275;
        const Q t277 = c[1] * t272;
        const Q t278 = t276 - t277;
        const Q t279 = t276 + t277;
        const Q t280 = shuffled<2, 3, 6, 7>(t262, t270);
        const Q t281 = shuffled<1, 0, 3, 2>(t280);
        // complex block of 19, multiplier 3
        const Q t282 = Q(c[6], c[6], c[10], c[10]) * t281;
        // real block of 3, multiplier 2
        const Q t283 = c[1] * t233;
        const Q t284 = shuffled<2, 3, 6, 7>(t283, t279);
        const Q t285 = shuffled<1, 0, 3, 2>(t284);
        // complex block of 19, multiplier 3
        const Q t286 = Q(c[7], c[7], c[11], c[11]) * t285;
        const Q t287 = t282 + t286;
        const Q t288 = shuffled<0, 1, 4, 5>(t262, t270);
        const Q t289 = Q(c[8], c[8], c[12], c[12]) * t288;
        const Q t290 = shuffled<0, 1, 4, 5>(t283, t279);
        const Q t291 = Q(c[9], c[9], -c[13], -c[13]) * t290;
        const Q t292 = t289 + t291;
        const Q t293 = flipped<0, 1, 0, 1>(t287);
        // complex block of 2
        const Q t294 = t292 + t293;
        const Q t295 = t292 - t293;
        // complex block of 19, multiplier 3
        const Q t296 = Q(-c[6], c[6], -c[10], c[10]) * t285;
        const Q t297 = Q(c[7], -c[7], c[11], -c[11]) * t281;
        const Q t298 = t296 + t297;
        const Q t299 = Q(c[8], c[8], c[12], c[12]) * t290;
        const Q t300 = Q(-c[9], -c[9], c[13], c[13]) * t288;
        const Q t301 = t299 + t300;
        // complex block of 2
        const Q t302 = t301 - t298;
        const Q t303 = t301 + t298;
        const Q t304 = shuffled<0, 1, 4, 5>(t274, t269);
        // complex block of 19, multiplier 3
        const Q t305 = Q(c[14], c[14], c[18], c[18]) * t304;
        const Q t306 = shuffled<0, 1, 4, 5>(t265, t278);
        const Q t307 = Q(-c[15], -c[15], c[19], c[19]) * t306;
        const Q t308 = t305 + t307;
        const Q t309 = shuffled<2, 3, 6, 7>(t265, t269);
        const Q t310 = shuffled<1, 0, 3, 2>(t309);
        const Q t311 = Q(c[16], c[16], c[20], c[20]) * t310;
        const Q t312 = shuffled<2, 3, 6, 7>(t274, t278);
        const Q t313 = shuffled<1, 0, 3, 2>(t312);
        const Q t314 = Q(c[17], c[17], c[21], c[21]) * t313;
        const Q t315 = t311 + t314;
        const Q t316 = flipped<0, 1, 0, 1>(t315);
        // complex block of 2
        const Q t317 = t308 + t316;
        const Q t318 = t308 - t316;
        // complex block of 19, multiplier 3
        const Q t319 = Q(c[15], c[15], c[19], c[19]) * t304;
        const Q t320 = Q(c[14], c[14], -c[18], -c[18]) * t306;
        const Q t321 = t319 + t320;
        const Q t322 = shuffled<0, 1, 6, 7>(t313, t310);
        const Q t323 = Q(-c[16], c[16], -c[21], c[21]) * t322;
        const Q t324 = shuffled<0, 1, 6, 7>(t310, t313);
        const Q t325 = Q(c[17], -c[17], c[20], -c[20]) * t324;
        const Q t326 = t323 + t325;
        const Q t327 = flipped<0, 0, 1, 1>(t326);
        // complex block of 2
        const Q t328 = t321 + t327;
        const Q t329 = flipped<1, 1, 0, 0>(t321);
        const Q t330 = t329 + t326;
        // complex block of 19, multiplier 3
        const Q t331 = x0_19 + t80;
        // complex block of 2
        const Q t332 = t110 - t107;
        // spectrum block of 3, multiplier 2
        const Q t333 = c[0] * t103;
        const Q t334 = t86 - t333;
        const Q t335 = c[1] * t332;
        const Q t336 = t334 - t335;
        const Q t337 = t334 + t335;
        // complex block of 2
        const Q t338 = t110 + t107;
        // spectrum block of 3, multiplier 2
        const Q t339 = c[0] * t104;
        const Q t340 = t87 - t339;
        const Q t341 = c[1] * t338;
        const Q t342 = t340 - t341;
        const Q t343 = t340 + t341;
        // spectrum block of 3, multiplier 2
        const Q t344 = t103 + t86;
        // complex block of 3, multiplier 2
        const Q t345 = t162 - t200;
        const Q t346 = t154 - t192;
        const Q t347 = t345 - t181;
        const Q t348 = c[0] * t345;
        const Q t349 = t181 + t348;
        const Q t350 = c[1] * t346;
        const Q t351 = t350 - t349;
        const Q t352 = t349 + t350;
        const Q t353 = t154 + t192;
        const Q t354 = t353 + t173;
        const Q t355 = t162 + t200;
        const Q t356 = c[0] * t353;
        const Q t357 = t173 - t356;
        const Q t358 = c[1] * t355;
        const Q t359 = t357 - t358;
        const Q t360 = t357 + t358;
        // spectrum block of 9, multiplier 2
        const Q t361 = c[2] * t360;
        const Q t362 = c[3] * t352;
        const Q t363 = t361 + t362;
        const Q t364 = c[5] * t359;
        const Q t365 = c[4] * t351;
        const Q t366 = t364 + t365;
        // spectrum block of 3, multiplier 2
        const Q t367 = t354 + t344;
        const Q t368 = c[0] * t354;
        const Q t369 = t344 - t368;
        const Q t370 = c[1] * t347;
        const Q t371 = t369 - t370;
        const Q t372 = t369 + t370;
        // spectrum block of 3, multiplier 2
        const Q t373 = c[22] * t360;
        const Q t374 = c[23] * t352;
        const Q t375 = t373 - t374;
        // spectrum block of 3, multiplier 2
        const Q t376 = c[24] * t359;
        const Q t377 = c[25] * t351;
        const Q t378 = t376 - t377;
        // spectrum block of 3, multiplier 2
        const Q t379 = t104 + t87;
        // complex block of 3, multiplier 2
        const Q t380 = t163 - t201;
        const Q t381 = t155 - t193;
        const Q t382 = t380 + t182;
        const Q t383 = c[0] * t380;
        const Q t384 = t182 - t383;
        const Q t385 = c[1] * t381;
        const Q t386 = t384 + t385;
        const Q t387 = t384 - t385;
        const Q t388 = t155 + t193;
        const Q t389 = t388 + t174;
        const Q t390 = t163 + t201;
        const Q t391 = c[0] * t388;
        const Q t392 = t174 - t391;
        const Q t393 = c[1] * t390;
        const Q t394 = t392 - t393;
        const Q t395 = t392 + t393;
        // spectrum block of 9, multiplier 2
        const Q t396 = c[2] * t395;
        const Q t397 = c[3] * t387;
        const Q t398 = t396 - t397;
        const Q t399 = c[5] * t394;
        const Q t400 = c[4] * t386;
        const Q t401 = t399 + t400;
        // spectrum block of 3, multiplier 2
        const Q t402 = t389 + t379;
        const Q t403 = c[0] * t389;
        const Q t404 = t379 - t403;
        const Q t405 = c[1] * t382;
        const Q t406 = t404 - t405;
        const Q t407 = t404 + t405;
        // spectrum block of 3, multiplier 2
        const Q t408 = c[23] * t387;
        const Q t409 = c[22] * t395;
        const Q t410 = t408 + t409;
        // spectrum block of 3, multiplier 2
        const Q t411 = c[24] * t394;
        const Q t412 = c[25] * t386;
        const Q t413 = t411 - t412;
        // complex block of 19, multiplier 3
        const P t414 = x38 + t253;
        const Q t415 = shuffled<0, 1, 4, 5>(t294, t295);
        const Q t416 = joined(t259, t260);
        // spectrum block of 3, multiplier 2
        const Q t417 = t415 + t416;
        const Q t418 = shuffled<2, 3, 6, 7>(t302, t303);
        const Q t419 = shuffled<2, 3, 6, 7>(t328, t330);
        // complex block of 3, multiplier 2
        const Q t420 = t418 - t419;
        const Q t421 = shuffled<2, 3, 6, 7>(t294, t295);
        const Q t422 = shuffled<2, 3, 6, 7>(t317, t318);
        const Q t423 = t421 - t422;
        const Q t424 = shuffled<0, 1, 4, 5>(t328, t330);
        const Q t425 = flipped<1, 1, 0, 0>(t424);
        const Q t426 = t420 + t425;
        const Q t427 = Q(c[0], c[0], -c[0], -c[0]) * t420;
        const Q t428 = t424 + t427;
        const Q t429 = flipped<1, 1, 0, 0>(t428);
        const Q t430 = c[1] * t423;
        const Q t431 = t429 + t430;
        const Q t432 = flipped<0, 0, 1, 1>(t430);
        const Q t433 = t428 + t432;
        const Q t434 = t421 + t422;
        const Q t435 = shuffled<0, 1, 4, 5>(t317, t318);
        const Q t436 = t434 + t435;
        const Q t437 = t418 + t419;
        const Q t438 = c[0] * t434;
        const Q t439 = t435 - t438;
        const Q t440 = c[1] * t437;
        const Q t441 = t439 - t440;
        const Q t442 = t439 + t440;
        // spectrum block of 9, multiplier 2
        const Q t443 = c[2] * t442;
        const Q t444 = Q(c[3], c[3], -c[3], -c[3]) * t433;
        const Q t445 = t443 + t444;
        const Q t446 = c[5] * t441;
        const Q t447 = c[4] * t431;
        const Q t448 = t446 + t447;
        // spectrum block of 3, multiplier 2
        const Q t449 = t436 + t417;
        const Q t450 = c[0] * t436;
        const Q t451 = t417 - t450;
        const Q t452 = c[1] * t426;
        const Q t453 = t451 - t452;
        const Q t454 = t451 + t452;
        const Q t455 = shuffled<0, 1, 6, 7>(t442, t433);
        // spectrum block of 3, multiplier 2
        const Q t456 = Q(c[22], c[22], c[23], c[23]) * t455;
        const Q t457 = shuffled<0, 1, 6, 7>(t433, t442);
        const Q t458 = Q(-c[23], -c[23], c[22], c[22]) * t457;
        const Q t459 = t456 + t458;
        // spectrum block of 3, multiplier 2
        const Q t460 = c[24] * t441;
        const Q t461 = c[25] * t431;
        const Q t462 = t460 - t461;
        // spectrum block of 3, multiplier 2
        const Q t463 = c[0] * t415;
        const Q t464 = t416 - t463;
        const Q t465 = shuffled<0, 1, 4, 5>(t302, t303);
        const Q t466 = c[1] * t465;
        const Q t467 = t464 - t466;
        const Q t468 = t464 + t466;
        // spectrum block of 3, multiplier 2
        const Q t469 = t363 + t337;
        // spectrum block of 3, multiplier 2
        const Q t470 = t398 + t343;
        // spectrum block of 3, multiplier 2
        const Q t471 = t445 + t468;
        const Q t472 = shuffled<2, 3, 6, 7>(t470, t407);
        const Q t473 = shuffled<2, 3, 6, 7>(t471, t454);
        // complex block of 3
        const Q t474 = t472 + t473;
        const Q t475 = shuffled<2, 3, 6, 7>(t469, t402);
        const Q t476 = shuffled<0, 1, 6, 7>(t471, t449);
        // complex block of 3
        const Q t477 = t475 + t476;
        // complex block of 3
        const Q t478 = t472 - t473;
        // complex block of 3
        const Q t479 = t475 - t476;
        const Q t480 = shuffled<0, 1, 4, 5>(t470, t407);
        // complex block of 3
        const Q t481 = t474 + t480;
        const Q t482 = c[0] * t474;
        const Q t483 = t480 - t482;
        const Q t484 = Q(-c[1], c[1], -c[1], c[1]) * t478;
        const Q t485 = shuffled<1, 0, 3, 2>(t484);
        const Q t486 = t483 + t485;
        const Q t487 = shuffled<0, 1, 6, 7>(t481, t486);
        io.pairs(42, 43, t487);
        const Q t488 = t483 - t485;
        const Q t489 = shuffled<0, 1, 6, 7>(t486, t488);
        io.pairs(4, 5, t489);
        const Q t490 = shuffled<0, 1, 6, 7>(t488, t481);
        io.pairs(23, 24, t490);
        const Q t491 = shuffled<0, 1, 4, 5>(t469, t402);
        // complex block of 3
        const Q t492 = t477 + t491;
        const Q t493 = c[0] * t477;
        const Q t494 = t491 - t493;
        const Q t495 = Q(-c[1], c[1], -c[1], c[1]) * t479;
        const Q t496 = shuffled<1, 0, 3, 2>(t495);
        const Q t497 = t494 + t496;
        const Q t498 = shuffled<0, 1, 6, 7>(t492, t497);
        io.pairs(15, 16, t498);
        const Q t499 = t494 - t496;
        const Q t500 = shuffled<0, 1, 6, 7>(t497, t499);
        io.pairs(34, 35, t500);
        const Q t501 = shuffled<0, 1, 6, 7>(t499, t492);
        io.pairs(53, 54, t501);
        // spectrum block of 3, multiplier 2
        const Q t502 = c[0] * t363;
        const Q t503 = t337 - t502;
        const Q t504 = t503 - t375;
        const Q t505 = t503 + t375;
        // spectrum block of 3, multiplier 2
        const Q t506 = c[0] * t366;
        const Q t507 = t506 + t336;
        const Q t508 = t507 - t378;
        const Q t509 = t507 + t378;
        // spectrum block of 3, multiplier 2
        const Q t510 = c[0] * t398;
        const Q t511 = t343 - t510;
        const Q t512 = t511 - t410;
        const Q t513 = t511 + t410;
        // spectrum block of 3, multiplier 2
        const Q t514 = c[0] * t401;
        const Q t515 = t514 + t342;
        const Q t516 = t515 - t413;
        const Q t517 = t515 + t413;
        // spectrum block of 3, multiplier 2
        const Q t518 = c[0] * t445;
        const Q t519 = t468 - t518;
        const Q t520 = t519 - t459;
        const Q t521 = t519 + t459;
        // spectrum block of 3, multiplier 2
        const Q t522 = c[0] * t448;
        const Q t523 = t522 + t467;
        const Q t524 = t523 - t462;
        const Q t525 = t523 + t462;
        const Q t526 = shuffled<2, 3, 6, 7>(t509, t512);
        const Q t527 = shuffled<0, 1, 6, 7>(t525, t520);
        // complex block of 3
        const Q t528 = t526 + t527;
        const Q t529 = t526 - t527;
        const Q t530 = shuffled<2, 3, 6, 7>(t513, t516);
        const Q t531 = shuffled<2, 3, 6, 7>(t521, t524);
        // complex block of 3
        const Q t532 = t530 + t531;
        const Q t533 = t530 - t531;
        const Q t534 = shuffled<2, 3, 6, 7>(t504, t517);
        const Q t535 = shuffled<0, 1, 6, 7>(t520, t525);
        // complex block of 3
        const Q t536 = t534 + t535;
        const Q t537 = t534 - t535;
        const Q t538 = shuffled<2, 3, 6, 7>(t508, t505);
        const Q t539 = shuffled<0, 1, 4, 5>(t524, t521);
        // complex block of 3
        const Q t540 = t538 + t539;
        const Q t541 = t538 - t539;
        const Q t542 = shuffled<0, 1, 4, 5>(t509, t512);
        // complex block of 3
        const Q t543 = t528 + t542;
        const Q t544 = c[0] * t528;
        const Q t545 = t542 - t544;
        const Q t546 = Q(-c[1], c[1], -c[1], c[1]) * t529;
        const Q t547 = shuffled<1, 0, 3, 2>(t546);
        const Q t548 = t545 + t547;
        const Q t549 = shuffled<0, 1, 6, 7>(t543, t548);
        io.pairs(27, 28, t549);
        const Q t550 = t545 - t547;
        const Q t551 = shuffled<0, 1, 6, 7>(t550, t543);
        io.pairs(8, 9, t551);
        const Q t552 = shuffled<0, 1, 6, 7>(t548, t550);
        io.pairs(46, 47, t552);
        const Q t553 = shuffled<0, 1, 4, 5>(t513, t516);
        // complex block of 3
        const Q t554 = t532 + t553;
        const Q t555 = c[0] * t532;
        const Q t556 = t553 - t555;
        const Q t557 = Q(-c[1], c[1], -c[1], c[1]) * t533;
        const Q t558 = shuffled<1, 0, 3, 2>(t557);
        const Q t559 = t556 + t558;
        const Q t560 = shuffled<0, 1, 6, 7>(t554, t559);
        io.pairs(6, 7, t560);
        const Q t561 = t556 - t558;
        const Q t562 = shuffled<0, 1, 6, 7>(t559, t561);
        io.pairs(25, 26, t562);
        const Q t563 = shuffled<0, 1, 6, 7>(t561, t554);
        io.pairs(44, 45, t563);
        const Q t564 = shuffled<0, 1, 4, 5>(t504, t517);
        // complex block of 3
        const Q t565 = t536 + t564;
        const Q t566 = c[0] * t536;
        const Q t567 = t564 - t566;
        const Q t568 = Q(-c[1], c[1], -c[1], c[1]) * t537;
        const Q t569 = shuffled<1, 0, 3, 2>(t568);
        const Q t570 = t567 + t569;
        const Q t571 = shuffled<0, 1, 6, 7>(t565, t570);
        io.pairs(48, 49, t571);
        const Q t572 = t567 - t569;
        const Q t573 = shuffled<0, 1, 6, 7>(t570, t572);
        io.pairs(10, 11, t573);
        const Q t574 = shuffled<0, 1, 6, 7>(t572, t565);
        io.pairs(29, 30, t574);
        const Q t575 = shuffled<0, 1, 4, 5>(t508, t505);
        // complex block of 3
        const Q t576 = t540 + t575;
        const Q t577 = c[0] * t540;
        const Q t578 = t575 - t577;
        const Q t579 = Q(-c[1], c[1], -c[1], c[1]) * t541;
        const Q t580 = shuffled<1, 0, 3, 2>(t579);
        const Q t581 = t578 + t580;
        const Q t582 = shuffled<0, 1, 6, 7>(t576, t581);
        io.pairs(12, 13, t582);
        const Q t583 = t578 - t580;
        const Q t584 = shuffled<0, 1, 6, 7>(t581, t583);
        io.pairs(31, 32, t584);
        const Q t585 = shuffled<0, 1, 6, 7>(t583, t576);
        io.pairs(50, 51, t585);
        // spectrum block of 3, multiplier 2
        const Q t586 = t336 - t366;
        // spectrum block of 3, multiplier 2
        const Q t587 = t342 - t401;
        // spectrum block of 3, multiplier 2
        const Q t588 = t467 - t448;
        const Q t589 = shuffled<2, 3, 6, 7>(t406, t586);
        const Q t590 = shuffled<2, 3, 4, 5>(t453, t588);
        // complex block of 3
        const Q t591 = t589 + t590;
        const Q t592 = shuffled<2, 3, 6, 7>(t331, t587);
        const P t593 = part<1>(t588);
        const Q t594 = joined(t414, t593);
        // complex block of 3
        const Q t595 = t592 + t594;
        // complex block of 3
        const Q t596 = t589 - t590;
        // complex block of 3
        const Q t597 = t592 - t594;
        const Q t598 = shuffled<0, 1, 4, 5>(t406, t586);
        // complex block of 3
        const Q t599 = t591 + t598;
        const Q t600 = c[0] * t591;
        const Q t601 = t598 - t600;
        const Q t602 = Q(-c[1], c[1], -c[1], c[1]) * t596;
        const Q t603 = shuffled<1, 0, 3, 2>(t602);
        const Q t604 = t601 + t603;
        const Q t605 = shuffled<0, 1, 6, 7>(t599, t604);
        io.pairs(36, 37, t605);
        const Q t606 = t601 - t603;
        const Q t607 = shuffled<0, 1, 6, 7>(t606, t599);
        io.pairs(17, 18, t607);
        const Q t608 = shuffled<0, 1, 6, 7>(t604, t606);
        io.pairs(55, 56, t608);
        const Q t609 = shuffled<0, 1, 4, 5>(t331, t587);
        // complex block of 3
        const Q t610 = t595 + t609;
        const Q t611 = c[0] * t595;
        const Q t612 = t609 - t611;
        const Q t613 = Q(-c[1], c[1], -c[1], c[1]) * t597;
        const Q t614 = shuffled<1, 0, 3, 2>(t613);
        const Q t615 = t612 + t614;
        const Q t616 = shuffled<0, 1, 6, 7>(t610, t615);
        io.pairs(0, 1, t616);
        const Q t617 = t612 - t614;
        const Q t618 = shuffled<0, 1, 6, 7>(t615, t617);
        io.pairs(19, 20, t618);
        const Q t619 = shuffled<0, 1, 6, 7>(t617, t610);
        io.pairs(38, 39, t619);
        const Q t620 = shuffled<2, 3, 6, 7>(t371, t367);
        const Q t621 = shuffled<0, 1, 4, 5>(t453, t449);
        // complex block of 3
        const Q t622 = t620 + t621;
        const Q t623 = t620 - t621;
        const Q t624 = shuffled<0, 1, 4, 5>(t371, t367);
        const Q t625 = t622 + t624;
        const Q t626 = c[0] * t622;
        const Q t627 = t624 - t626;
        const Q t628 = Q(-c[1], c[1], -c[1], c[1]) * t623;
        const Q t629 = shuffled<1, 0, 3, 2>(t628);
        const Q t630 = t627 + t629;
        const Q t631 = shuffled<0, 1, 6, 7>(t625, t630);
        io.pairs(21, 22, t631);
        const Q t632 = t627 - t629;
        const Q t633 = shuffled<0, 1, 6, 7>(t632, t625);
        io.pairs(2, 3, t633);
        const Q t634 = shuffled<0, 1, 6, 7>(t630, t632);
        io.pairs(40, 41, t634);
        const P t635 = part<1>(t372);
        const P t636 = part<0>(t454);
        // complex block of 3
        const P t637 = t635 + t636;
        const P t638 = t635 - t636;
        const P t639 = part<0>(t372);
        const P t640 = t637 + t639;
        io.pair(33, t640);
        const P t641 = c[0] * t637;
        const P t642 = t639 - t641;
        const P t643 = P(-c[1], c[1]) * t638;
        const P t644 = shuffled<1, 0>(t643);
        const P t645 = t642 + t644;
        io.pair(52, t645);
        const P t646 = t642 - t644;
        io.pair(14, t646);
    }
};

}  // namespace zulg
