// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 58.
// Hartley transform of 58 points, form F; up to four lanes to a register.
// 127 sums, 101 differences, 106 products of registers, which do the 1204 steps of the graph, those with
// `scale` included; 182 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<58> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.4338837391175581,  // c[1]: -sin 2 pi 4/7
        0.7818314824680298,  // c[2]: -sin 2 pi 20/7
        0.6234898018587335,  // c[3]: cos 2 pi 20/7
        0.2225209339563144,  // c[4]: -cos 2 pi 16/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.3609030660383976,  // c[6]: P[4] of 29
        0.1330720128259635,  // c[7]: -Q[4] of 29
        0.2987602224736465,  // c[8]: -P[10] of 29
        0.24228395147216553,  // c[9]: -Q[10] of 29
        0.38084126020120657,  // c[10]: P[6] of 29
        0.054028864524680344,  // c[11]: -Q[6] of 29
        0.2786653006997481,  // c[12]: P[8] of 29
        0.26515058713755163,  // c[13]: Q[8] of 29
        0.21044290248272673,  // c[14]: P[1] of 29
        0.3219828698364479,  // c[15]: -Q[1] of 29
        0.1800860537573993,  // c[16]: P[13] of 29
        0.3398943908268515,  // c[17]: -Q[13] of 29
        0.19791793485411824,  // c[18]: Q[2] of 29
        0.3298297662985413,  // c[19]: P[2] of 29
        0.08413784916151361,  // c[20]: P[12] of 29
        0.3753398540149231,  // c[21]: -Q[12] of 29
        0.012126226322052493,  // c[22]: Q[3] of 29
        0.384463442096457,  // c[23]: P[3] of 29
        0.019970959548377194,  // c[24]: P[11] of 29
        0.38413584113980626,  // c[25]: Q[11] of 29
        0.13150502224471186,  // c[26]: -P[5] of 29
        0.36147698792300353,  // c[27]: -Q[5] of 29
        0.3603875070846735,  // c[28]: -P[9] of 29
        0.13446199615788765,  // c[29]: Q[9] of 29
        0.3777140697119294,  // c[30]: P[7] of 29
        0.07274108340629196,  // c[31]: Q[7] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x0_2_4_6 = io.in(0, 2, 4, 6);
        const Q x29_31_33_35 = io.in(29, 31, 33, 35);
        // real block of 2
        const Q t0 = x0_2_4_6 + x29_31_33_35;
        const Q t1 = x0_2_4_6 - x29_31_33_35;
        const Q x24_26_28_30 = io.in(24, 26, 28, 30);
        const Q x53_55_57_1 = io.in(53, 55, 57, 1);
        // real block of 2
        const Q t2 = x24_26_28_30 + x53_55_57_1;
        const Q t3 = x24_26_28_30 - x53_55_57_1;
        const Q x32_34_36_38 = io.in(32, 34, 36, 38);
        const Q x3_5_7_9 = io.in(3, 5, 7, 9);
        // real block of 2
        const Q t4 = x32_34_36_38 + x3_5_7_9;
        const Q t5 = x32_34_36_38 - x3_5_7_9;
        const Q x8_10_12_14 = io.in(8, 10, 12, 14);
        const Q x37_39_41_43 = io.in(37, 39, 41, 43);
        // real block of 2
        const Q t6 = x8_10_12_14 + x37_39_41_43;
        const Q t7 = x8_10_12_14 - x37_39_41_43;
        const Q x40_42_44_46 = io.in(40, 42, 44, 46);
        const Q x11_13_15_17 = io.in(11, 13, 15, 17);
        // real block of 2
        const Q t8 = x40_42_44_46 + x11_13_15_17;
        const Q t9 = x40_42_44_46 - x11_13_15_17;
        const Q x16_18_20_22 = io.in(16, 18, 20, 22);
        const Q x45_47_49_51 = io.in(45, 47, 49, 51);
        // real block of 2
        const Q t10 = x16_18_20_22 + x45_47_49_51;
        const Q t11 = x16_18_20_22 - x45_47_49_51;
        const Q x48_50_52_54 = io.in(48, 50, 52, 54);
        const Q x19_21_23_25 = io.in(19, 21, 23, 25);
        // real block of 2
        const Q t12 = x48_50_52_54 + x19_21_23_25;
        const Q t13 = x48_50_52_54 - x19_21_23_25;
        const Q t14 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t15 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t16 = shuffled<0, 4, 2, 6>(t10, t11);
        const Q t17 = shuffled<0, 1, 4, 5>(t15, t16);
        // real block of 7, multiplier 4
        const Q t18 = t14 + t17;
        const Q t19 = t14 - t17;
        const Q t20 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t21 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t22 = shuffled<2, 3, 6, 7>(t20, t21);
        const Q t23 = shuffled<0, 4, 3, 7>(t12, t13);
        const Q t24 = t22 + t23;
        const Q t25 = t22 - t23;
        const Q t26 = shuffled<1, 5, 3, 7>(t12, t13);
        const Q t27 = shuffled<0, 1, 6, 7>(t26, t16);
        const Q t28 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t29 = shuffled<0, 4, 2, 6>(t12, t13);
        const Q t30 = shuffled<2, 3, 6, 7>(t28, t29);
        const Q t31 = t27 - t30;
        const Q t32 = shuffled<1, 5, 3, 7>(t10, t11);
        const Q t33 = shuffled<0, 1, 4, 5>(t21, t20);
        // real block of 7, multiplier 4
        const Q t34 = t32 + t33;
        const Q t35 = shuffled<0, 1, 6, 7>(t33, t32);
        const Q t36 = shuffled<0, 1, 6, 7>(t32, t33);
        const Q t37 = t35 - t36;
        const Q t38 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t39 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t40 = shuffled<2, 3, 6, 7>(t38, t39);
        const Q t41 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t42 = shuffled<0, 1, 6, 7>(t28, t41);
        const Q t43 = t40 + t42;
        const Q t44 = t40 - t42;
        const Q t45 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t46 = shuffled<0, 1, 6, 7>(t38, t45);
        const Q t47 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t48 = shuffled<2, 3, 6, 7>(t15, t47);
        const Q t49 = t46 - t48;
        const V x56 = io.in(56);
        const V x27 = io.in(27);
        // real block of 2
        const V t50 = x56 + x27;
        const V t51 = x56 - x27;
        // real block of 7, multiplier 4
        const Q t52 = t27 + t30;
        const Q t53 = t18 + t24;
        const Q t54 = shuffled<0, 1, 4, 5>(t47, t39);
        const Q t55 = c[0] * t18;
        const Q t56 = t54 - t55;
        const Q t57 = c[1] * t19;
        const Q t58 = c[2] * t25;
        const Q t59 = t57 + t58;
        const Q t60 = c[3] * t18;
        const Q t61 = c[4] * t24;
        const Q t62 = t60 - t61;
        const Q t63 = c[5] * t25;
        const Q t64 = c[1] * t31;
        const Q t65 = t63 + t64;
        const Q t66 = c[4] * t18;
        const Q t67 = t54 - t66;
        const Q t68 = c[5] * t19;
        const Q t69 = c[1] * t25;
        const Q t70 = t68 + t69;
        // real block of 7, multiplier 4
        const Q t71 = t46 + t48;
        const Q t72 = t34 + t43;
        const P t73 = joined(t50, t51);
        const P t74 = part<0>(t45);
        const Q t75 = joined(t73, t74);
        const Q t76 = c[0] * t34;
        const Q t77 = t75 - t76;
        const Q t78 = c[1] * t37;
        const Q t79 = c[2] * t44;
        const Q t80 = t78 + t79;
        const Q t81 = c[3] * t34;
        const Q t82 = c[4] * t43;
        const Q t83 = t81 - t82;
        const Q t84 = c[5] * t44;
        const Q t85 = c[1] * t49;
        const Q t86 = t84 + t85;
        const Q t87 = c[4] * t34;
        const Q t88 = t75 - t87;
        const Q t89 = c[5] * t37;
        const Q t90 = c[1] * t44;
        const Q t91 = t89 + t90;
        // real block of 7, multiplier 4
        const Q t92 = t53 + t52;
        const Q t93 = t92 + t54;
        // real block of 7, multiplier 4
        const Q t94 = t72 + t71;
        const Q t95 = t94 + t75;
        // real block of 2
        const Q t96 = t93 + t95;
        const P t97 = part<0>(t96);
        const P t98 = part<1>(t96);
        // real block of 2
        const P t99 = t97 + t98;
        const P t100 = t97 - t98;
        // real block of 2
        const Q t101 = t93 - t95;
        // real block of 7, multiplier 4
        const Q t102 = c[3] * t24;
        const Q t103 = t56 + t102;
        const Q t104 = c[4] * t52;
        const Q t105 = t103 - t104;
        const Q t106 = c[5] * t31;
        const Q t107 = t59 - t106;
        // real block of 7, multiplier 4
        const Q t108 = c[3] * t43;
        const Q t109 = t77 + t108;
        const Q t110 = c[4] * t71;
        const Q t111 = t109 - t110;
        const Q t112 = c[5] * t49;
        const Q t113 = t80 - t112;
        const Q t114 = shuffled<0, 4, 2, 6>(t105, t107);
        const Q t115 = shuffled<1, 5, 3, 7>(t105, t107);
        const Q t116 = shuffled<0, 1, 4, 5>(t114, t115);
        const Q t117 = shuffled<0, 4, 2, 6>(t111, t113);
        const Q t118 = shuffled<1, 5, 3, 7>(t111, t113);
        const Q t119 = shuffled<0, 1, 4, 5>(t117, t118);
        // complex block of 2
        const Q t120 = t116 - t119;
        const Q t121 = shuffled<2, 3, 6, 7>(t114, t115);
        const Q t122 = shuffled<2, 3, 6, 7>(t117, t118);
        // complex block of 2
        const Q t123 = t121 - t122;
        // complex block of 2
        const Q t124 = t116 + t119;
        // complex block of 2
        const Q t125 = t121 + t122;
        // complex block of 2
        const Q t126 = t124 + t125;
        const Q t127 = t124 - t125;
        const Q t128 = shuffled<1, 0, 3, 2>(t123);
        const Q t129 = flipped<1, 0, 1, 0>(t128);
        // complex block of 2
        const Q t130 = t120 + t129;
        const Q t131 = t120 - t129;
        // real block of 7, multiplier 4
        const Q t132 = c[0] * t52;
        const Q t133 = t62 - t132;
        const Q t134 = t133 + t54;
        const Q t135 = c[2] * t19;
        const Q t136 = t65 - t135;
        // real block of 7, multiplier 4
        const Q t137 = c[0] * t71;
        const Q t138 = t83 - t137;
        const Q t139 = t138 + t75;
        const Q t140 = c[2] * t37;
        const Q t141 = t86 - t140;
        const Q t142 = shuffled<0, 4, 2, 6>(t134, t136);
        const Q t143 = shuffled<1, 5, 3, 7>(t134, t136);
        const Q t144 = shuffled<0, 1, 4, 5>(t142, t143);
        const Q t145 = shuffled<0, 4, 2, 6>(t139, t141);
        const Q t146 = shuffled<1, 5, 3, 7>(t139, t141);
        const Q t147 = shuffled<0, 1, 4, 5>(t145, t146);
        // complex block of 2
        const Q t148 = t144 - t147;
        const Q t149 = shuffled<2, 3, 6, 7>(t142, t143);
        const Q t150 = shuffled<2, 3, 6, 7>(t145, t146);
        // complex block of 2
        const Q t151 = t149 - t150;
        // complex block of 2
        const Q t152 = t144 + t147;
        // complex block of 2
        const Q t153 = t149 + t150;
        // complex block of 2
        const Q t154 = t152 + t153;
        const Q t155 = t152 - t153;
        const Q t156 = shuffled<1, 0, 3, 2>(t151);
        const Q t157 = flipped<1, 0, 1, 0>(t156);
        // complex block of 2
        const Q t158 = t148 + t157;
        const Q t159 = t148 - t157;
        // real block of 7, multiplier 4
        const Q t160 = c[0] * t24;
        const Q t161 = t67 - t160;
        const Q t162 = c[3] * t52;
        const Q t163 = t161 + t162;
        const Q t164 = c[2] * t31;
        const Q t165 = t70 + t164;
        // real block of 7, multiplier 4
        const Q t166 = c[0] * t43;
        const Q t167 = t88 - t166;
        const Q t168 = c[3] * t71;
        const Q t169 = t167 + t168;
        const Q t170 = c[2] * t49;
        const Q t171 = t91 + t170;
        const Q t172 = shuffled<0, 4, 2, 6>(t163, t165);
        const Q t173 = shuffled<1, 5, 3, 7>(t163, t165);
        const Q t174 = shuffled<0, 1, 4, 5>(t172, t173);
        const Q t175 = shuffled<0, 4, 2, 6>(t169, t171);
        const Q t176 = shuffled<1, 5, 3, 7>(t169, t171);
        const Q t177 = shuffled<0, 1, 4, 5>(t175, t176);
        // complex block of 2
        const Q t178 = t174 - t177;
        const Q t179 = shuffled<2, 3, 6, 7>(t172, t173);
        const Q t180 = shuffled<2, 3, 6, 7>(t175, t176);
        // complex block of 2
        const Q t181 = t179 - t180;
        // complex block of 2
        const Q t182 = t174 + t177;
        // complex block of 2
        const Q t183 = t179 + t180;
        // complex block of 2
        const Q t184 = t182 + t183;
        const Q t185 = t182 - t183;
        const Q t186 = shuffled<1, 0, 3, 2>(t181);
        const Q t187 = flipped<1, 0, 1, 0>(t186);
        // complex block of 2
        const Q t188 = t178 + t187;
        const Q t189 = t178 - t187;
        const P t190 = part<0>(t41);
        // real block of 29, multiplier 2
        const P t191 = t190 + t99;
        io.out(0, 29, t191);
        const P t192 = c[32] * t99;
        const P t193 = t190 - t192;
        const Q t194 = c[6] * t126;
        const Q t195 = shuffled<1, 0, 3, 2>(t126);
        const Q t196 = Q(c[7], -c[7], c[7], -c[7]) * t195;
        const Q t197 = t194 + t196;
        const Q t198 = c[8] * t127;
        const Q t199 = shuffled<1, 0, 3, 2>(t127);
        const Q t200 = Q(c[9], -c[9], c[9], -c[9]) * t199;
        const Q t201 = t198 + t200;
        // complex block of 2
        const Q t202 = t197 - t201;
        const Q t203 = t197 + t201;
        // real block of 29, multiplier 2
        const Q t204 = c[10] * t155;
        const Q t205 = shuffled<1, 0, 3, 2>(t155);
        const Q t206 = Q(-c[11], c[11], -c[11], c[11]) * t205;
        const Q t207 = t204 + t206;
        const Q t208 = c[12] * t154;
        const Q t209 = shuffled<1, 0, 3, 2>(t154);
        const Q t210 = Q(-c[13], c[13], -c[13], c[13]) * t209;
        const Q t211 = t208 + t210;
        // complex block of 2
        const Q t212 = t211 + t207;
        const Q t213 = t211 - t207;
        // real block of 29, multiplier 2
        const P t214 = c[33] * t100;
        // spectrum block of 2
        const P t215 = t193 - t214;
        const P t216 = t193 + t214;
        const Q t217 = joined(t215, t216);
        const P t218 = part<0>(t202);
        const P t219 = part<1>(t202);
        const P t220 = shuffled<0, 2>(t218, t219);
        const P t221 = part<0>(t203);
        const P t222 = part<1>(t203);
        const P t223 = shuffled<0, 2>(t221, t222);
        const Q t224 = joined(t220, t223);
        // spectrum block of 7, multiplier 2
        const Q t225 = c[4] * t224;
        const Q t226 = t217 - t225;
        const Q t227 = c[0] * t224;
        const Q t228 = t217 - t227;
        const P t229 = part<0>(t212);
        const P t230 = part<1>(t212);
        const P t231 = shuffled<0, 2>(t229, t230);
        const P t232 = part<0>(t213);
        const P t233 = part<1>(t213);
        const P t234 = shuffled<0, 2>(t232, t233);
        const Q t235 = joined(t231, t234);
        const Q t236 = t224 + t235;
        const Q t237 = c[3] * t224;
        const Q t238 = c[4] * t235;
        const Q t239 = t237 - t238;
        // real block of 29, multiplier 2
        const Q t240 = c[14] * t159;
        const Q t241 = shuffled<1, 0, 3, 2>(t159);
        const Q t242 = Q(c[15], -c[15], c[15], -c[15]) * t241;
        const Q t243 = t240 + t242;
        const Q t244 = c[16] * t158;
        const Q t245 = shuffled<1, 0, 3, 2>(t158);
        const Q t246 = Q(-c[17], c[17], -c[17], c[17]) * t245;
        const Q t247 = t244 + t246;
        const Q t248 = shuffled<1, 0, 3, 2>(t243);
        const Q t249 = shuffled<1, 0, 3, 2>(t247);
        // complex block of 2
        const Q t250 = t248 + t249;
        const Q t251 = shuffled<0, 5, 2, 7>(t248, t249);
        const Q t252 = shuffled<0, 5, 2, 7>(t249, t248);
        const Q t253 = t251 - t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t250);
        // mirrored skew block of 14
        const Q t255 = c[4] * t254;
        const Q t256 = Q(c[5], -c[5], c[5], -c[5]) * t250;
        const Q t257 = t255 + t256;
        const Q t258 = shuffled<1, 0, 3, 2>(t185);
        // real block of 29, multiplier 2
        const Q t259 = c[18] * t258;
        const Q t260 = Q(c[19], -c[19], c[19], -c[19]) * t185;
        const Q t261 = t259 + t260;
        const Q t262 = c[20] * t184;
        const Q t263 = shuffled<1, 0, 3, 2>(t184);
        const Q t264 = Q(c[21], -c[21], c[21], -c[21]) * t263;
        const Q t265 = t262 + t264;
        const Q t266 = flipped<0, 1, 0, 1>(t261);
        // complex block of 2
        const Q t267 = t265 + t266;
        const Q t268 = t265 - t266;
        const Q t269 = shuffled<1, 0, 3, 2>(t131);
        // real block of 29, multiplier 2
        const Q t270 = c[22] * t269;
        const Q t271 = Q(c[23], -c[23], c[23], -c[23]) * t131;
        const Q t272 = t270 + t271;
        const Q t273 = c[24] * t130;
        const Q t274 = shuffled<1, 0, 3, 2>(t130);
        const Q t275 = Q(-c[25], c[25], -c[25], c[25]) * t274;
        const Q t276 = t273 + t275;
        const Q t277 = shuffled<1, 0, 3, 2>(t272);
        const Q t278 = shuffled<1, 0, 3, 2>(t276);
        const Q t279 = flipped<1, 0, 1, 0>(t278);
        // complex block of 2
        const Q t280 = t277 + t279;
        const Q t281 = flipped<0, 1, 0, 1>(t277);
        const Q t282 = t278 + t281;
        const Q t283 = shuffled<1, 0, 3, 2>(t280);
        // mirrored skew block of 14
        const Q t284 = c[3] * t283;
        const Q t285 = Q(c[2], -c[2], c[2], -c[2]) * t280;
        const Q t286 = t284 + t285;
        // real block of 29, multiplier 2
        const Q t287 = Q(-c[26], c[26], -c[26], c[26]) * t189;
        const Q t288 = shuffled<1, 0, 3, 2>(t189);
        const Q t289 = c[27] * t288;
        const Q t290 = t287 + t289;
        const Q t291 = Q(-c[28], c[28], -c[28], c[28]) * t188;
        const Q t292 = shuffled<1, 0, 3, 2>(t188);
        const Q t293 = c[29] * t292;
        const Q t294 = t291 + t293;
        const Q t295 = shuffled<1, 0, 3, 2>(t290);
        const Q t296 = shuffled<1, 0, 3, 2>(t294);
        // complex block of 2
        const Q t297 = t295 + t296;
        const Q t298 = t296 - t295;
        // mirrored skew block of 14
        const Q t299 = Q(-c[1], c[1], -c[1], c[1]) * t297;
        const Q t300 = shuffled<1, 0, 3, 2>(t297);
        const Q t301 = c[0] * t300;
        const Q t302 = t299 + t301;
        const P t303 = part<0>(t101);
        const P t304 = part<1>(t101);
        const P t305 = shuffled<0, 2>(t303, t304);
        const P t306 = part<0>(t101);
        const P t307 = part<1>(t101);
        const P t308 = shuffled<1, 3>(t306, t307);
        const Q t309 = joined(t305, t308);
        // real block of 29, multiplier 2
        const Q t310 = c[30] * t309;
        const Q t311 = shuffled<1, 0, 3, 2>(t309);
        const Q t312 = Q(-c[31], c[31], -c[31], c[31]) * t311;
        const Q t313 = t310 + t312;
        const P t314 = part<0>(t267);
        const P t315 = part<1>(t267);
        const P t316 = shuffled<0, 2>(t314, t315);
        const P t317 = part<0>(t268);
        const P t318 = part<1>(t268);
        const P t319 = shuffled<0, 2>(t317, t318);
        const Q t320 = joined(t316, t319);
        // spectrum block of 7, multiplier 2
        const Q t321 = t236 + t320;
        const Q t322 = t321 + t217;
        const Q t323 = c[0] * t320;
        const Q t324 = t239 - t323;
        const Q t325 = t324 + t217;
        const P t326 = shuffled<1, 3>(t218, t219);
        const P t327 = shuffled<1, 3>(t221, t222);
        const Q t328 = joined(t326, t327);
        const Q t329 = c[2] * t328;
        const P t330 = shuffled<1, 3>(t229, t230);
        const P t331 = shuffled<1, 3>(t232, t233);
        const Q t332 = joined(t330, t331);
        const Q t333 = c[5] * t332;
        const Q t334 = t329 + t333;
        const P t335 = shuffled<1, 3>(t314, t315);
        const P t336 = shuffled<1, 3>(t317, t318);
        const Q t337 = joined(t335, t336);
        const Q t338 = c[1] * t337;
        const Q t339 = t334 + t338;
        const Q t340 = c[0] * t235;
        const Q t341 = t226 - t340;
        const Q t342 = c[3] * t320;
        const Q t343 = t341 + t342;
        const Q t344 = c[5] * t328;
        const Q t345 = c[1] * t332;
        const Q t346 = t344 - t345;
        const Q t347 = c[2] * t337;
        const Q t348 = t346 - t347;
        const Q t349 = c[3] * t235;
        const Q t350 = t228 + t349;
        const Q t351 = c[4] * t320;
        const Q t352 = t350 - t351;
        const Q t353 = c[1] * t328;
        const Q t354 = c[2] * t332;
        const Q t355 = t353 - t354;
        const Q t356 = c[5] * t337;
        const Q t357 = t355 + t356;
        const P t358 = part<0>(t298);
        const P t359 = part<1>(t298);
        const P t360 = shuffled<0, 2>(t358, t359);
        const P t361 = part<0>(t302);
        const P t362 = part<1>(t302);
        const P t363 = shuffled<0, 2>(t361, t362);
        const Q t364 = joined(t360, t363);
        const P t365 = part<0>(t282);
        const P t366 = part<1>(t282);
        const P t367 = shuffled<0, 2>(t365, t366);
        const P t368 = part<0>(t286);
        const P t369 = part<1>(t286);
        const P t370 = shuffled<0, 2>(t368, t369);
        const Q t371 = joined(t367, t370);
        // spectrum block of 7, multiplier 2
        const Q t372 = t364 + t371;
        const P t373 = part<0>(t253);
        const P t374 = part<1>(t253);
        const P t375 = shuffled<0, 2>(t373, t374);
        const P t376 = part<0>(t257);
        const P t377 = part<1>(t257);
        const P t378 = shuffled<0, 2>(t376, t377);
        const Q t379 = joined(t375, t378);
        const Q t380 = t372 + t379;
        const Q t381 = c[3] * t364;
        const Q t382 = c[4] * t371;
        const Q t383 = t381 - t382;
        const Q t384 = c[0] * t379;
        const Q t385 = t383 - t384;
        const P t386 = part<0>(t313);
        const P t387 = part<1>(t313);
        const P t388 = shuffled<1, 3>(t386, t387);
        const P t389 = part<0>(t313);
        const P t390 = part<1>(t313);
        const P t391 = shuffled<0, 2>(t389, t390);
        const Q t392 = joined(t388, t391);
        const Q t393 = t385 + t392;
        const P t394 = shuffled<1, 3>(t358, t359);
        const P t395 = shuffled<1, 3>(t361, t362);
        const Q t396 = joined(t394, t395);
        const Q t397 = c[2] * t396;
        const P t398 = shuffled<1, 3>(t365, t366);
        const P t399 = shuffled<1, 3>(t368, t369);
        const Q t400 = joined(t398, t399);
        const Q t401 = Q(c[5], c[5], -c[5], -c[5]) * t400;
        const Q t402 = t397 + t401;
        const P t403 = shuffled<1, 3>(t373, t374);
        const P t404 = shuffled<1, 3>(t376, t377);
        const Q t405 = joined(t403, t404);
        const Q t406 = Q(c[1], c[1], -c[1], -c[1]) * t405;
        const Q t407 = t402 + t406;
        const Q t408 = c[4] * t364;
        const Q t409 = t392 - t408;
        const Q t410 = c[0] * t371;
        const Q t411 = t409 - t410;
        const Q t412 = c[3] * t379;
        const Q t413 = t411 + t412;
        const Q t414 = Q(-c[5], -c[5], c[5], c[5]) * t396;
        const Q t415 = c[1] * t400;
        const Q t416 = t414 + t415;
        const Q t417 = c[2] * t405;
        const Q t418 = t416 + t417;
        const Q t419 = c[0] * t364;
        const Q t420 = t392 - t419;
        const Q t421 = c[3] * t371;
        const Q t422 = t420 + t421;
        const Q t423 = c[4] * t379;
        const Q t424 = t422 - t423;
        const Q t425 = Q(-c[1], -c[1], c[1], c[1]) * t396;
        const Q t426 = c[2] * t400;
        const Q t427 = t425 + t426;
        const Q t428 = c[5] * t405;
        const Q t429 = t427 - t428;
        // spectrum block of 7, multiplier 2
        const Q t430 = t325 - t339;
        const Q t431 = t325 + t339;
        const Q t432 = t343 - t348;
        const Q t433 = t343 + t348;
        const Q t434 = t352 - t357;
        const Q t435 = t352 + t357;
        // spectrum block of 7, multiplier 2
        const Q t436 = t380 + t392;
        const Q t437 = flipped<0, 0, 1, 1>(t407);
        const Q t438 = t393 + t437;
        const Q t439 = t393 - t437;
        const Q t440 = t413 - t418;
        const Q t441 = t413 + t418;
        const Q t442 = t424 - t429;
        const Q t443 = t424 + t429;
        const P t444 = part<1>(t430);
        const V t445 = part<1>(t444);
        const P t446 = part<1>(t436);
        const V t447 = part<1>(t446);
        // output stage
        const V t448 = t445 - t447;
        io.out(1, t448);
        const V t449 = t445 + t447;
        io.out(57, t449);
        const P t450 = part<0>(t322);
        const V t451 = part<0>(t450);
        const P t452 = part<0>(t436);
        const V t453 = part<0>(t452);
        const V t454 = t451 - t453;
        io.out(2, t454);
        const V t455 = t451 + t453;
        io.out(56, t455);
        const P t456 = part<0>(t434);
        const V t457 = part<1>(t456);
        const P t458 = part<0>(t441);
        const V t459 = part<1>(t458);
        const V t460 = t457 - t459;
        io.out(3, t460);
        const V t461 = t457 + t459;
        io.out(55, t461);
        const P t462 = part<1>(t431);
        const V t463 = part<0>(t462);
        const P t464 = part<1>(t439);
        const V t465 = part<0>(t464);
        const V t466 = t463 + t465;
        io.out(4, t466);
        const V t467 = t463 - t465;
        io.out(54, t467);
        const P t468 = part<1>(t322);
        const V t469 = part<1>(t468);
        const P t470 = part<1>(t442);
        const V t471 = part<1>(t470);
        const V t472 = t469 + t471;
        io.out(5, t472);
        const V t473 = t469 - t471;
        io.out(53, t473);
        const P t474 = part<1>(t432);
        const V t475 = part<0>(t474);
        const P t476 = part<1>(t443);
        const V t477 = part<0>(t476);
        const V t478 = t475 + t477;
        io.out(6, t478);
        const V t479 = t475 - t477;
        io.out(52, t479);
        const P t480 = part<1>(t434);
        const V t481 = part<1>(t480);
        const P t482 = part<1>(t438);
        const V t483 = part<1>(t482);
        const V t484 = t481 - t483;
        io.out(7, t484);
        const V t485 = t481 + t483;
        io.out(51, t485);
        const P t486 = part<0>(t433);
        const V t487 = part<0>(t486);
        const P t488 = part<0>(t439);
        const V t489 = part<0>(t488);
        const V t490 = t487 + t489;
        io.out(8, t490);
        const V t491 = t487 - t489;
        io.out(50, t491);
        const P t492 = part<1>(t433);
        const V t493 = part<1>(t492);
        const P t494 = part<1>(t440);
        const V t495 = part<1>(t494);
        const V t496 = t493 + t495;
        io.out(9, t496);
        const V t497 = t493 - t495;
        io.out(49, t497);
        const P t498 = part<0>(t431);
        const V t499 = part<0>(t498);
        const P t500 = part<0>(t442);
        const V t501 = part<0>(t500);
        const V t502 = t499 + t501;
        io.out(10, t502);
        const V t503 = t499 - t501;
        io.out(48, t503);
        const P t504 = part<0>(t435);
        const V t505 = part<1>(t504);
        const P t506 = part<0>(t440);
        const V t507 = part<1>(t506);
        const V t508 = t505 - t507;
        io.out(11, t508);
        const V t509 = t505 + t507;
        io.out(47, t509);
        const P t510 = part<0>(t430);
        const V t511 = part<0>(t510);
        const P t512 = part<0>(t443);
        const V t513 = part<0>(t512);
        const V t514 = t511 + t513;
        io.out(12, t514);
        const V t515 = t511 - t513;
        io.out(46, t515);
        const P t516 = part<1>(t435);
        const V t517 = part<1>(t516);
        const P t518 = part<1>(t441);
        const V t519 = part<1>(t518);
        const V t520 = t517 + t519;
        io.out(13, t520);
        const V t521 = t517 - t519;
        io.out(45, t521);
        const P t522 = part<0>(t432);
        const V t523 = part<0>(t522);
        const P t524 = part<0>(t438);
        const V t525 = part<0>(t524);
        const V t526 = t523 - t525;
        io.out(14, t526);
        const V t527 = t523 + t525;
        io.out(44, t527);
        const V t528 = part<1>(t522);
        const V t529 = part<1>(t524);
        const V t530 = t528 + t529;
        io.out(15, t530);
        const V t531 = t528 - t529;
        io.out(43, t531);
        const V t532 = part<0>(t516);
        const V t533 = part<0>(t518);
        const V t534 = t532 - t533;
        io.out(16, t534);
        const V t535 = t532 + t533;
        io.out(42, t535);
        const V t536 = part<1>(t510);
        const V t537 = part<1>(t512);
        const V t538 = t536 - t537;
        io.out(17, t538);
        const V t539 = t536 + t537;
        io.out(41, t539);
        const V t540 = part<0>(t504);
        const V t541 = part<0>(t506);
        const V t542 = t540 + t541;
        io.out(18, t542);
        const V t543 = t540 - t541;
        io.out(40, t543);
        const V t544 = part<1>(t498);
        const V t545 = part<1>(t500);
        const V t546 = t544 - t545;
        io.out(19, t546);
        const V t547 = t544 + t545;
        io.out(39, t547);
        const V t548 = part<0>(t492);
        const V t549 = part<0>(t494);
        const V t550 = t548 - t549;
        io.out(20, t550);
        const V t551 = t548 + t549;
        io.out(38, t551);
        const V t552 = part<1>(t486);
        const V t553 = part<1>(t488);
        const V t554 = t552 - t553;
        io.out(21, t554);
        const V t555 = t552 + t553;
        io.out(37, t555);
        const V t556 = part<0>(t480);
        const V t557 = part<0>(t482);
        const V t558 = t556 + t557;
        io.out(22, t558);
        const V t559 = t556 - t557;
        io.out(36, t559);
        const V t560 = part<1>(t474);
        const V t561 = part<1>(t476);
        const V t562 = t560 - t561;
        io.out(23, t562);
        const V t563 = t560 + t561;
        io.out(35, t563);
        const V t564 = part<0>(t468);
        const V t565 = part<0>(t470);
        const V t566 = t564 - t565;
        io.out(24, t566);
        const V t567 = t564 + t565;
        io.out(34, t567);
        const V t568 = part<1>(t462);
        const V t569 = part<1>(t464);
        const V t570 = t568 - t569;
        io.out(25, t570);
        const V t571 = t568 + t569;
        io.out(33, t571);
        const V t572 = part<0>(t456);
        const V t573 = part<0>(t458);
        const V t574 = t572 + t573;
        io.out(26, t574);
        const V t575 = t572 - t573;
        io.out(32, t575);
        const V t576 = part<1>(t450);
        const V t577 = part<1>(t452);
        const V t578 = t576 + t577;
        io.out(27, t578);
        const V t579 = t576 - t577;
        io.out(31, t579);
        const V t580 = part<0>(t444);
        const V t581 = part<0>(t446);
        const V t582 = t580 + t581;
        io.out(28, t582);
        const V t583 = t580 - t581;
        io.out(30, t583);
    }
};

}  // namespace zulg
