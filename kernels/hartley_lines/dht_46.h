// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 46.
// Hartley transform of 46 points, form I; up to four lanes to a register.
// 103 sums, 67 differences, 122 products of registers, which do the 1188 steps of the graph, those with
// `scale` included; 182 shuffles, 32 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<46> {
    static constexpr int steps = 1188;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        0.8412535328311812,  // c[0]: cos 2 pi 1/11
        0.41541501300188644,  // c[1]: cos 2 pi 9/11
        0.9096319953545183,  // c[2]: -sin 2 pi 9/11
        0.5406408174555976,  // c[3]: sin 2 pi 1/11
        0.28173255684142967,  // c[4]: -sin 2 pi 6/11
        0.6548607339452851,  // c[5]: -cos 2 pi 4/11
        0.7557495743542583,  // c[6]: sin 2 pi 4/11
        0.14231483827328514,  // c[7]: -cos 2 pi 3/11
        0.9898214418809327,  // c[8]: sin 2 pi 3/11
        0.9594929736144974,  // c[9]: -cos 2 pi 6/11
        0.4130101145562366,  // c[10]: P[2] of 23
        0.1396613400420585,  // c[11]: Q[2] of 23
        0.4075964682115579,  // c[12]: P[9] of 23
        0.15475065017493012,  // c[13]: Q[9] of 23
        0.07284077652875139,  // c[14]: -P[4] of 23
        0.42985679697172136,  // c[15]: -Q[4] of 23
        0.3941449686576057,  // c[16]: Q[7] of 23
        0.1863662746045921,  // c[17]: -P[7] of 23
        0.3222553093449257,  // c[18]: -Q[3] of 23
        0.2936565344532715,  // c[19]: -P[3] of 23
        0.12855275355334153,  // c[20]: -Q[5] of 23
        0.4166015292602189,  // c[21]: P[5] of 23
        0.2732012886111602,  // c[22]: -P[6] of 23
        0.3397700700904962,  // c[23]: -Q[6] of 23
        0.05696081894716527,  // c[24]: Q[8] of 23
        0.4322477411542684,  // c[25]: P[8] of 23
        0.39967916400094217,  // c[26]: -Q[1] of 23
        0.17418154463549565,  // c[27]: P[1] of 23
        0.4006581594304406,  // c[28]: P[10] of 23
        0.1719176660785936,  // c[29]: Q[10] of 23
        0.045454545454545456,  // c[30]: 1/22
        0.21799234196875997,  // c[31]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x45_44_43_42 = io.in(45, 44, 43, 42);
        // input stage
        const Q t0 = x1_2_3_4 + x45_44_43_42;
        const Q t1 = x1_2_3_4 - x45_44_43_42;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x41_40_39_38 = io.in(41, 40, 39, 38);
        const Q t2 = x5_6_7_8 + x41_40_39_38;
        const Q t3 = x5_6_7_8 - x41_40_39_38;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x37_36_35_34 = io.in(37, 36, 35, 34);
        const Q t4 = x9_10_11_12 + x37_36_35_34;
        const Q t5 = x9_10_11_12 - x37_36_35_34;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x33_32_31_30 = io.in(33, 32, 31, 30);
        const Q t6 = x13_14_15_16 + x33_32_31_30;
        const Q t7 = x13_14_15_16 - x33_32_31_30;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x29_28_27_26 = io.in(29, 28, 27, 26);
        const Q t8 = x17_18_19_20 + x29_28_27_26;
        const Q t9 = x17_18_19_20 - x29_28_27_26;
        const P x21_22 = io.in(21, 22);
        const P x25_24 = io.in(25, 24);
        const P t10 = x21_22 + x25_24;
        const P t11 = x21_22 - x25_24;
        const Q t12 = shuffled<1, 4, 3, 6>(t4, t6);
        const Q t13 = shuffled<1, 4, 3, 6>(t9, t7);
        const Q t14 = shuffled<0, 1, 4, 5>(t12, t13);
        const Q t15 = shuffled<1, 4, 3, 6>(t8, t2);
        const Q t16 = shuffled<1, 4, 3, 6>(t5, t3);
        const Q t17 = shuffled<0, 1, 4, 5>(t15, t16);
        const Q t18 = flipped<0, 0, 1, 1>(t17);
        // real block of 11
        const Q t19 = t14 + t18;
        const Q t20 = t14 - t18;
        const P t21 = part<0>(t0);
        const P t22 = shuffled<1, 2>(t10, t21);
        const P t23 = part<0>(t1);
        const P t24 = shuffled<1, 2>(t11, t23);
        const P t25 = flipped<1, 0>(t24);
        const Q t26 = joined(t22, t25);
        const Q t27 = shuffled<1, 4, 3, 6>(t0, t8);
        const Q t28 = shuffled<1, 4, 3, 6>(t1, t9);
        const Q t29 = shuffled<2, 3, 6, 7>(t27, t28);
        const Q t30 = flipped<0, 0, 0, 1>(t29);
        const Q t31 = t26 + t30;
        const Q t32 = flipped<0, 0, 1, 0>(t26);
        const Q t33 = flipped<1, 1, 0, 1>(t30);
        const Q t34 = t32 + t33;
        const Q t35 = shuffled<0, 4, 2, 6>(t15, t0);
        const Q t36 = shuffled<0, 4, 2, 6>(t13, t1);
        const Q t37 = shuffled<2, 3, 6, 7>(t35, t36);
        const Q t38 = flipped<0, 0, 1, 0>(t37);
        const Q t39 = shuffled<1, 4, 3, 6>(t6, t4);
        const Q t40 = shuffled<1, 4, 3, 6>(t7, t5);
        const Q t41 = shuffled<0, 1, 4, 5>(t39, t40);
        const Q t42 = flipped<0, 0, 1, 0>(t41);
        const Q t43 = t38 - t42;
        const Q t44 = shuffled<0, 5, 2, 7>(t39, t15);
        const Q t45 = shuffled<1, 5, 3, 7>(t3, t28);
        const Q t46 = shuffled<2, 3, 4, 5>(t44, t45);
        const Q t47 = flipped<0, 0, 1, 0>(t46);
        const Q t48 = shuffled<1, 5, 3, 7>(t2, t27);
        const Q t49 = shuffled<0, 5, 2, 7>(t40, t16);
        const Q t50 = shuffled<0, 1, 6, 7>(t48, t49);
        const Q t51 = flipped<0, 0, 1, 0>(t50);
        const Q t52 = t47 - t51;
        const Q t53 = t37 + t41;
        const Q t54 = t19 + t31;
        const Q t55 = flipped<0, 0, 1, 0>(t53);
        const Q t56 = t54 + t55;
        const Q t57 = shuffled<0, 5, 2, 7>(t48, t12);
        const Q t58 = shuffled<0, 5, 2, 7>(t45, t13);
        const Q t59 = shuffled<2, 3, 6, 7>(t57, t58);
        const Q t60 = shuffled<2, 3, 6, 7>(t4, t5);
        const Q t61 = shuffled<1, 0, 3, 2>(t60);
        const Q t62 = t59 + t61;
        const Q t63 = flipped<0, 0, 0, 1>(t59);
        const Q t64 = flipped<0, 0, 0, 1>(t61);
        const Q t65 = t63 - t64;
        const Q t66 = t50 + t46;
        const Q t67 = c[0] * t19;
        const Q t68 = c[1] * t31;
        const Q t69 = t67 + t68;
        const Q t70 = c[2] * t34;
        const Q t71 = c[3] * t20;
        const Q t72 = shuffled<0, 5, 2, 7>(t71, t70);
        const Q t73 = shuffled<0, 1, 6, 7>(t70, t72);
        const Q t74 = c[4] * t52;
        const Q t75 = t73 + t74;
        const Q t76 = c[1] * t19;
        const Q t77 = c[5] * t31;
        const Q t78 = t76 - t77;
        const Q t79 = c[6] * t34;
        const Q t80 = c[2] * t20;
        const Q t81 = shuffled<0, 5, 2, 7>(t80, t79);
        const Q t82 = shuffled<0, 1, 6, 7>(t79, t81);
        const Q t83 = c[4] * t43;
        const Q t84 = t82 + t83;
        const P t85 = shuffled<1, 2>(t21, t10);
        const P t86 = shuffled<1, 2>(t23, t11);
        const Q t87 = joined(t85, t86);
        const Q t88 = Q(c[7], c[7], c[7], -c[7]) * t19;
        const Q t89 = t87 - t88;
        const Q t90 = c[2] * t43;
        const Q t91 = c[8] * t20;
        const Q t92 = shuffled<0, 5, 2, 7>(t91, t90);
        const Q t93 = shuffled<0, 1, 6, 7>(t90, t92);
        const Q t94 = c[6] * t52;
        const Q t95 = c[4] * t34;
        const Q t96 = shuffled<0, 5, 2, 7>(t95, t94);
        const Q t97 = shuffled<0, 1, 6, 7>(t94, t96);
        const Q t98 = t93 + t97;
        const Q t99 = Q(c[5], c[5], c[5], -c[5]) * t19;
        const Q t100 = t87 - t99;
        const Q t101 = Q(c[9], c[9], c[9], -c[9]) * t19;
        const Q t102 = t87 - t101;
        const Q t103 = flipped<0, 0, 0, 1>(t62);
        const Q t104 = t56 + t103;
        const Q t105 = flipped<0, 0, 0, 1>(t66);
        const Q t106 = t104 + t105;
        const Q t107 = flipped<0, 0, 0, 1>(t87);
        const Q t108 = t106 + t107;
        const Q t109 = Q(c[7], c[7], -c[7], c[7]) * t53;
        const Q t110 = t69 - t109;
        const Q t111 = Q(c[5], c[5], c[5], -c[5]) * t62;
        const Q t112 = t110 - t111;
        const Q t113 = Q(c[9], c[9], c[9], -c[9]) * t66;
        const Q t114 = t112 - t113;
        const Q t115 = shuffled<0, 5, 2, 7>(t70, t71);
        const Q t116 = shuffled<0, 1, 6, 7>(t71, t115);
        const Q t117 = t75 - t116;
        const Q t118 = c[8] * t43;
        const Q t119 = t117 - t118;
        const Q t120 = t114 + t107;
        const Q t121 = c[6] * t65;
        const Q t122 = t119 - t121;
        const Q t123 = Q(c[9], c[9], -c[9], c[9]) * t53;
        const Q t124 = t78 - t123;
        const Q t125 = Q(c[7], c[7], c[7], -c[7]) * t62;
        const Q t126 = t124 - t125;
        const Q t127 = Q(c[0], c[0], c[0], -c[0]) * t66;
        const Q t128 = t126 + t127;
        const Q t129 = c[8] * t65;
        const Q t130 = t84 + t129;
        const Q t131 = shuffled<0, 5, 2, 7>(t79, t80);
        const Q t132 = shuffled<0, 1, 6, 7>(t80, t131);
        const Q t133 = t130 - t132;
        const Q t134 = t128 + t107;
        const Q t135 = c[3] * t52;
        const Q t136 = t133 - t135;
        const Q t137 = Q(c[9], c[9], c[9], -c[9]) * t31;
        const Q t138 = t89 - t137;
        const Q t139 = Q(c[1], c[1], -c[1], c[1]) * t53;
        const Q t140 = flipped<0, 0, 0, 1>(t138);
        const Q t141 = t139 + t140;
        const Q t142 = Q(c[0], c[0], c[0], -c[0]) * t62;
        const Q t143 = t141 + t142;
        const Q t144 = shuffled<0, 5, 2, 7>(t90, t91);
        const Q t145 = shuffled<0, 1, 6, 7>(t91, t144);
        const Q t146 = flipped<0, 0, 1, 0>(t145);
        const Q t147 = t98 - t146;
        const Q t148 = shuffled<0, 5, 2, 7>(t94, t95);
        const Q t149 = shuffled<0, 1, 6, 7>(t95, t148);
        const Q t150 = flipped<0, 0, 1, 0>(t149);
        const Q t151 = t147 - t150;
        const Q t152 = Q(c[5], c[5], c[5], -c[5]) * t66;
        const Q t153 = t143 - t152;
        const Q t154 = c[3] * t65;
        const Q t155 = t151 - t154;
        const Q t156 = Q(c[7], c[7], c[7], -c[7]) * t31;
        const Q t157 = t100 - t156;
        const Q t158 = Q(c[0], c[0], -c[0], c[0]) * t53;
        const Q t159 = flipped<0, 0, 0, 1>(t157);
        const Q t160 = t158 + t159;
        const Q t161 = Q(c[9], c[9], c[9], -c[9]) * t62;
        const Q t162 = t160 - t161;
        const Q t163 = Q(c[1], c[1], c[1], -c[1]) * t66;
        const Q t164 = t162 + t163;
        const Q t165 = c[6] * t20;
        const Q t166 = c[8] * t34;
        const Q t167 = t165 + t166;
        const Q t168 = Q(c[3], c[3], -c[3], c[3]) * t43;
        const Q t169 = t167 + t168;
        const Q t170 = Q(c[4], c[4], -c[4], c[4]) * t65;
        const Q t171 = t169 + t170;
        const Q t172 = Q(c[2], c[2], -c[2], c[2]) * t52;
        const Q t173 = t171 + t172;
        const Q t174 = c[0] * t31;
        const Q t175 = flipped<0, 0, 0, 1>(t102);
        const Q t176 = t174 + t175;
        const Q t177 = Q(c[5], c[5], -c[5], c[5]) * t53;
        const Q t178 = t176 - t177;
        const Q t179 = Q(c[1], c[1], c[1], -c[1]) * t62;
        const Q t180 = t178 + t179;
        const Q t181 = Q(c[7], c[7], c[7], -c[7]) * t66;
        const Q t182 = t180 - t181;
        const Q t183 = c[2] * t65;
        const Q t184 = c[4] * t20;
        const Q t185 = shuffled<0, 5, 2, 7>(t184, t183);
        const Q t186 = shuffled<0, 1, 6, 7>(t183, t185);
        const Q t187 = c[8] * t52;
        const Q t188 = c[3] * t34;
        const Q t189 = shuffled<0, 5, 2, 7>(t188, t187);
        const Q t190 = shuffled<0, 1, 6, 7>(t187, t189);
        const Q t191 = t186 + t190;
        const Q t192 = shuffled<0, 5, 2, 7>(t183, t184);
        const Q t193 = shuffled<0, 1, 6, 7>(t184, t192);
        const Q t194 = flipped<0, 0, 1, 0>(t193);
        const Q t195 = t191 - t194;
        const Q t196 = shuffled<0, 5, 2, 7>(t187, t188);
        const Q t197 = shuffled<0, 1, 6, 7>(t188, t196);
        const Q t198 = flipped<0, 0, 1, 0>(t197);
        const Q t199 = t195 - t198;
        const Q t200 = c[6] * t43;
        const Q t201 = t199 - t200;
        const P x0_23 = io.in(0, 23);
        const P t202 = part<0>(t108);
        // spectrum block of 23, multiplier 2
        const P t203 = c[30] * t202;
        const P t204 = x0_23 - t203;
        const Q t205 = shuffled<0, 4, 2, 6>(t120, t122);
        const Q t206 = shuffled<1, 5, 3, 7>(t120, t122);
        const Q t207 = shuffled<0, 1, 4, 5>(t205, t206);
        const Q t208 = c[10] * t207;
        const Q t209 = shuffled<1, 0, 3, 2>(t207);
        const Q t210 = Q(-c[11], c[11], -c[11], c[11]) * t209;
        const Q t211 = t208 + t210;
        const Q t212 = shuffled<2, 3, 6, 7>(t205, t206);
        const Q t213 = shuffled<1, 0, 3, 2>(t212);
        const Q t214 = c[12] * t213;
        const Q t215 = Q(c[13], -c[13], c[13], -c[13]) * t212;
        const Q t216 = t214 + t215;
        const Q t217 = shuffled<0, 4, 2, 6>(t134, t136);
        const Q t218 = shuffled<1, 5, 3, 7>(t134, t136);
        const Q t219 = shuffled<0, 1, 4, 5>(t217, t218);
        const Q t220 = Q(-c[14], c[14], -c[14], c[14]) * t219;
        const Q t221 = shuffled<1, 0, 3, 2>(t219);
        const Q t222 = c[15] * t221;
        const Q t223 = t220 + t222;
        const Q t224 = shuffled<2, 3, 6, 7>(t217, t218);
        const Q t225 = c[16] * t224;
        const Q t226 = shuffled<1, 0, 3, 2>(t224);
        const Q t227 = Q(-c[17], c[17], -c[17], c[17]) * t226;
        const Q t228 = t225 + t227;
        const P t229 = part<0>(t211);
        const P t230 = part<1>(t211);
        const P t231 = shuffled<0, 2>(t229, t230);
        const P t232 = part<0>(t216);
        const P t233 = part<1>(t216);
        const P t234 = shuffled<0, 2>(t232, t233);
        const Q t235 = joined(t231, t234);
        const P t236 = part<0>(t223);
        const P t237 = part<1>(t223);
        const P t238 = shuffled<0, 2>(t236, t237);
        const P t239 = part<0>(t228);
        const P t240 = part<1>(t228);
        const P t241 = shuffled<0, 2>(t239, t240);
        const Q t242 = joined(t238, t241);
        // spectrum block of 11, multiplier 2
        const Q t243 = t235 + t242;
        const Q t244 = c[0] * t235;
        const Q t245 = c[1] * t242;
        const Q t246 = t244 + t245;
        const P t247 = shuffled<1, 3>(t236, t237);
        const P t248 = shuffled<1, 3>(t239, t240);
        const Q t249 = joined(t247, t248);
        const Q t250 = Q(-c[2], -c[2], c[2], c[2]) * t249;
        const P t251 = shuffled<1, 3>(t229, t230);
        const P t252 = shuffled<1, 3>(t232, t233);
        const Q t253 = joined(t251, t252);
        const Q t254 = Q(c[3], c[3], -c[3], -c[3]) * t253;
        const Q t255 = t250 + t254;
        const Q t256 = c[1] * t235;
        const Q t257 = c[5] * t242;
        const Q t258 = t256 - t257;
        const Q t259 = Q(-c[6], -c[6], c[6], c[6]) * t249;
        const Q t260 = Q(c[2], c[2], -c[2], -c[2]) * t253;
        const Q t261 = t259 + t260;
        const P t262 = part<1>(t108);
        // spectrum block of 23, multiplier 2
        const P t263 = c[31] * t262;
        const Q t264 = joined(t204, t263);
        // spectrum block of 11, multiplier 2
        const Q t265 = Q(-c[7], -c[7], c[7], c[7]) * t235;
        const Q t266 = t264 + t265;
        const Q t267 = c[8] * t253;
        const Q t268 = c[4] * t249;
        const Q t269 = t267 + t268;
        const Q t270 = Q(-c[5], -c[5], c[5], c[5]) * t235;
        const Q t271 = t264 + t270;
        const Q t272 = c[6] * t253;
        const Q t273 = c[8] * t249;
        const Q t274 = t272 + t273;
        const Q t275 = Q(-c[9], -c[9], c[9], c[9]) * t235;
        const Q t276 = t264 + t275;
        const Q t277 = c[4] * t253;
        const Q t278 = c[3] * t249;
        const Q t279 = t277 + t278;
        const Q t280 = shuffled<0, 4, 2, 6>(t164, t173);
        const Q t281 = shuffled<1, 5, 3, 7>(t164, t173);
        const Q t282 = shuffled<2, 3, 6, 7>(t280, t281);
        // spectrum block of 23, multiplier 2
        const Q t283 = Q(c[18], c[18], -c[18], c[18]) * t282;
        const Q t284 = shuffled<1, 0, 3, 2>(t282);
        const Q t285 = Q(c[19], -c[19], c[19], c[19]) * t284;
        const Q t286 = t283 + t285;
        const Q t287 = shuffled<0, 4, 2, 6>(t153, t155);
        const Q t288 = shuffled<1, 5, 3, 7>(t153, t155);
        const Q t289 = shuffled<2, 3, 6, 7>(t287, t288);
        const Q t290 = Q(-c[20], c[20], -c[20], c[20]) * t289;
        const Q t291 = shuffled<1, 0, 3, 2>(t289);
        const Q t292 = c[21] * t291;
        const Q t293 = t290 + t292;
        const Q t294 = shuffled<0, 1, 4, 5>(t287, t288);
        const Q t295 = Q(-c[22], c[22], -c[22], c[22]) * t294;
        const Q t296 = shuffled<1, 0, 3, 2>(t294);
        const Q t297 = c[23] * t296;
        const Q t298 = t295 + t297;
        const Q t299 = shuffled<0, 1, 4, 5>(t280, t281);
        const Q t300 = shuffled<1, 0, 3, 2>(t299);
        const Q t301 = c[24] * t300;
        const Q t302 = Q(c[25], -c[25], c[25], -c[25]) * t299;
        const Q t303 = t301 + t302;
        const P t304 = part<0>(t298);
        const P t305 = part<1>(t298);
        const P t306 = shuffled<0, 2>(t304, t305);
        const P t307 = part<0>(t293);
        const P t308 = part<1>(t293);
        const P t309 = shuffled<0, 2>(t307, t308);
        const Q t310 = joined(t306, t309);
        // spectrum block of 11, multiplier 2
        const Q t311 = t243 + t310;
        const P t312 = part<0>(t303);
        const P t313 = part<1>(t303);
        const P t314 = shuffled<0, 2>(t312, t313);
        const P t315 = part<0>(t286);
        const P t316 = part<1>(t286);
        const P t317 = shuffled<0, 2>(t315, t316);
        const P t318 = flipped<1, 0>(t317);
        const Q t319 = joined(t314, t318);
        const Q t320 = t311 + t319;
        const Q t321 = c[7] * t310;
        const Q t322 = t246 - t321;
        const Q t323 = c[5] * t319;
        const Q t324 = t322 - t323;
        const P t325 = shuffled<1, 3>(t304, t305);
        const P t326 = shuffled<1, 3>(t307, t308);
        const Q t327 = joined(t325, t326);
        const Q t328 = c[8] * t327;
        const Q t329 = t255 - t328;
        const P t330 = shuffled<1, 3>(t312, t313);
        const P t331 = shuffled<1, 3>(t315, t316);
        const Q t332 = joined(t330, t331);
        const Q t333 = Q(c[6], c[6], -c[6], c[6]) * t332;
        const Q t334 = t329 + t333;
        const Q t335 = c[9] * t310;
        const Q t336 = t258 - t335;
        const Q t337 = c[7] * t319;
        const Q t338 = t336 - t337;
        const Q t339 = c[4] * t327;
        const Q t340 = t261 + t339;
        const Q t341 = Q(c[8], c[8], -c[8], c[8]) * t332;
        const Q t342 = t340 - t341;
        const Q t343 = Q(-c[9], -c[9], c[9], c[9]) * t242;
        const Q t344 = t266 + t343;
        const Q t345 = c[1] * t310;
        const Q t346 = flipped<0, 0, 1, 1>(t344);
        const Q t347 = t345 + t346;
        const Q t348 = c[2] * t327;
        const Q t349 = flipped<0, 0, 1, 1>(t269);
        const Q t350 = t348 + t349;
        const Q t351 = Q(c[3], c[3], -c[3], c[3]) * t332;
        const Q t352 = t350 + t351;
        const Q t353 = Q(-c[7], -c[7], c[7], c[7]) * t242;
        const Q t354 = t271 + t353;
        const Q t355 = c[0] * t310;
        const Q t356 = flipped<0, 0, 1, 1>(t354);
        const Q t357 = t355 + t356;
        const Q t358 = Q(-c[3], -c[3], c[3], c[3]) * t327;
        const Q t359 = t274 + t358;
        const Q t360 = c[4] * t332;
        const Q t361 = flipped<0, 0, 0, 1>(t359);
        const Q t362 = t360 + t361;
        const Q t363 = c[0] * t242;
        const Q t364 = flipped<0, 0, 1, 1>(t276);
        const Q t365 = t363 + t364;
        const Q t366 = c[5] * t310;
        const Q t367 = t365 - t366;
        const Q t368 = Q(-c[6], -c[6], c[6], c[6]) * t327;
        const Q t369 = t279 + t368;
        const Q t370 = flipped<0, 0, 1, 0>(t369);
        const Q t371 = Q(-c[2], -c[2], c[2], c[2]) * t332;
        const Q t372 = t370 + t371;
        const Q t373 = shuffled<0, 4, 2, 6>(t182, t201);
        const Q t374 = shuffled<1, 5, 3, 7>(t182, t201);
        const Q t375 = shuffled<2, 3, 6, 7>(t373, t374);
        // spectrum block of 23, multiplier 2
        const Q t376 = Q(-c[26], c[26], -c[26], c[26]) * t375;
        const Q t377 = shuffled<1, 0, 3, 2>(t375);
        const Q t378 = c[27] * t377;
        const Q t379 = t376 + t378;
        const Q t380 = shuffled<0, 1, 4, 5>(t373, t374);
        const Q t381 = c[28] * t380;
        const Q t382 = shuffled<1, 0, 3, 2>(t380);
        const Q t383 = Q(-c[29], c[29], -c[29], c[29]) * t382;
        const Q t384 = t381 + t383;
        const P t385 = x0_23 + t202;
        const P t386 = part<0>(t384);
        const P t387 = part<1>(t384);
        const P t388 = shuffled<0, 2>(t386, t387);
        const P t389 = part<0>(t379);
        const P t390 = part<1>(t379);
        const P t391 = shuffled<0, 2>(t389, t390);
        const Q t392 = joined(t388, t391);
        // spectrum block of 11, multiplier 2
        const Q t393 = t320 + t392;
        const Q t394 = flipped<0, 0, 1, 1>(t264);
        const Q t395 = t393 + t394;
        const Q t396 = c[9] * t392;
        const Q t397 = t324 - t396;
        const Q t398 = t397 + t394;
        const P t399 = shuffled<1, 3>(t386, t387);
        const P t400 = shuffled<1, 3>(t389, t390);
        const Q t401 = joined(t399, t400);
        const Q t402 = Q(c[4], c[4], -c[4], -c[4]) * t401;
        const Q t403 = t334 + t402;
        const Q t404 = t398 - t403;
        const Q t405 = t398 + t403;
        const Q t406 = c[0] * t392;
        const Q t407 = t338 + t406;
        const Q t408 = t407 + t394;
        const Q t409 = Q(-c[3], -c[3], c[3], c[3]) * t401;
        const Q t410 = t342 + t409;
        const Q t411 = t408 - t410;
        const Q t412 = t408 + t410;
        const Q t413 = c[0] * t319;
        const Q t414 = t347 + t413;
        const Q t415 = c[5] * t392;
        const Q t416 = t414 - t415;
        const Q t417 = Q(c[6], c[6], -c[6], -c[6]) * t401;
        const Q t418 = t352 + t417;
        const Q t419 = t416 - t418;
        const Q t420 = t416 + t418;
        const Q t421 = c[9] * t319;
        const Q t422 = t357 - t421;
        const Q t423 = c[1] * t392;
        const Q t424 = t422 + t423;
        const Q t425 = flipped<0, 0, 1, 0>(t362);
        const Q t426 = Q(-c[2], -c[2], c[2], c[2]) * t401;
        const Q t427 = t425 + t426;
        const Q t428 = t424 - t427;
        const Q t429 = t424 + t427;
        const Q t430 = c[1] * t319;
        const Q t431 = t367 + t430;
        const Q t432 = c[7] * t392;
        const Q t433 = t431 - t432;
        const Q t434 = Q(c[8], c[8], -c[8], c[8]) * t401;
        const Q t435 = t372 + t434;
        const Q t436 = flipped<0, 0, 0, 1>(t435);
        const Q t437 = t433 - t436;
        const Q t438 = t433 + t436;
        const Q t439 = shuffled<0, 1, 4, 5>(t395, t411);
        const Q t440 = shuffled<2, 3, 6, 7>(t395, t411);
        // spectrum block of 2
        const Q t441 = t439 + t440;
        const Q t442 = t439 - t440;
        const Q t443 = shuffled<0, 1, 4, 5>(t428, t438);
        const Q t444 = shuffled<2, 3, 6, 7>(t428, t438);
        // spectrum block of 2
        const Q t445 = t443 + t444;
        const Q t446 = t443 - t444;
        const Q t447 = shuffled<0, 1, 4, 5>(t420, t405);
        const Q t448 = shuffled<2, 3, 6, 7>(t420, t405);
        // spectrum block of 2
        const Q t449 = t447 + t448;
        const Q t450 = t447 - t448;
        const Q t451 = shuffled<0, 1, 4, 5>(t404, t419);
        const Q t452 = shuffled<2, 3, 6, 7>(t404, t419);
        // spectrum block of 2
        const Q t453 = t451 + t452;
        const Q t454 = t451 - t452;
        const Q t455 = shuffled<0, 1, 4, 5>(t437, t429);
        const Q t456 = shuffled<2, 3, 6, 7>(t437, t429);
        // spectrum block of 2
        const Q t457 = t455 + t456;
        const Q t458 = t455 - t456;
        const P t459 = part<0>(t412);
        const P t460 = part<1>(t412);
        // spectrum block of 2
        const P t461 = t459 + t460;
        const P t462 = t459 - t460;
        const P t463 = part<0>(t441);
        const P t464 = shuffled<0, 2>(t385, t463);
        const P t465 = part<1>(t445);
        const P t466 = shuffled<0, 2>(t461, t465);
        const Q t467 = joined(t464, t466);
        const P t468 = shuffled<1, 3>(t385, t463);
        const P t469 = shuffled<1, 3>(t461, t465);
        const Q t470 = joined(t468, t469);
        // spectrum block of 2
        const Q t471 = t467 + t470;
        io.out(0, 44, 42, 40, t471);
        const Q t472 = t467 - t470;
        io.out(23, 21, 19, 17, t472);
        const P t473 = part<1>(t457);
        const P t474 = part<1>(t450);
        const P t475 = shuffled<0, 2>(t473, t474);
        const P t476 = part<0>(t445);
        const P t477 = part<1>(t454);
        const P t478 = shuffled<0, 2>(t476, t477);
        const Q t479 = joined(t475, t478);
        const P t480 = shuffled<1, 3>(t473, t474);
        const P t481 = shuffled<1, 3>(t476, t477);
        const Q t482 = joined(t480, t481);
        // spectrum block of 2
        const Q t483 = t479 + t482;
        io.out(38, 36, 34, 32, t483);
        const Q t484 = t479 - t482;
        io.out(15, 13, 11, 9, t484);
        const P t485 = part<0>(t457);
        const P t486 = part<0>(t453);
        const P t487 = shuffled<0, 2>(t485, t486);
        const P t488 = part<0>(t450);
        const P t489 = part<1>(t442);
        const P t490 = shuffled<0, 2>(t488, t489);
        const Q t491 = joined(t487, t490);
        const P t492 = shuffled<1, 3>(t485, t486);
        const P t493 = shuffled<1, 3>(t488, t489);
        const Q t494 = joined(t492, t493);
        // spectrum block of 2
        const Q t495 = t491 + t494;
        io.out(30, 28, 26, 24, t495);
        const Q t496 = t491 - t494;
        io.out(7, 5, 3, 1, t496);
        const P t497 = part<1>(t441);
        const P t498 = part<0>(t449);
        const P t499 = shuffled<0, 2>(t497, t498);
        const P t500 = part<0>(t454);
        const P t501 = part<0>(t458);
        const P t502 = shuffled<0, 2>(t500, t501);
        const Q t503 = joined(t499, t502);
        const P t504 = shuffled<1, 3>(t497, t498);
        const P t505 = shuffled<1, 3>(t500, t501);
        const Q t506 = joined(t504, t505);
        // spectrum block of 2
        const Q t507 = t503 + t506;
        io.out(22, 20, 18, 16, t507);
        const Q t508 = t503 - t506;
        io.out(45, 43, 41, 39, t508);
        const P t509 = part<1>(t453);
        const P t510 = part<0>(t446);
        const P t511 = shuffled<0, 2>(t509, t510);
        const P t512 = part<1>(t449);
        const P t513 = part<1>(t458);
        const P t514 = shuffled<0, 2>(t512, t513);
        const Q t515 = joined(t511, t514);
        const P t516 = shuffled<1, 3>(t509, t510);
        const P t517 = shuffled<1, 3>(t512, t513);
        const Q t518 = joined(t516, t517);
        // spectrum block of 2
        const Q t519 = t515 + t518;
        io.out(14, 12, 10, 8, t519);
        const Q t520 = t515 - t518;
        io.out(37, 35, 33, 31, t520);
        const P t521 = part<1>(t446);
        const P t522 = shuffled<0, 2>(t521, t462);
        const P t523 = shuffled<1, 3>(t521, t462);
        // spectrum block of 2
        const P t524 = t522 + t523;
        io.out(6, 4, t524);
        const P t525 = t522 - t523;
        io.out(29, 27, t525);
        const P t526 = part<0>(t442);
        const V t527 = part<0>(t526);
        const V t528 = part<1>(t526);
        // spectrum block of 2
        const V t529 = t527 + t528;
        io.out(2, t529);
        const V t530 = t527 - t528;
        io.out(25, t530);
    }
};

}  // namespace zulg
