// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 57.
// Inverse DFT to 57 real points, prime-factor 3, 19; up to four lanes to a register.
// 110 sums, 56 differences, 113 products of registers, which do the 1084 steps of the graph, those with
// `scale` included; 162 shuffles, 42 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<57> {
    static constexpr int steps = 1084;  // with `scale`
    static constexpr double inverseRoot = 0.13245323570650439;  // 1/sqrt(57), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        2.0,  // c[2]: 2
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.984807753012208,  // c[4]: sin 2 pi 2/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.6427876096865394,  // c[6]: sin 2 pi 1/9
        0.18325479984409965,  // c[7]: -P[2] of 19
        0.4483141527641826,  // c[8]: -Q[2] of 19
        0.011219473461650014,  // c[9]: -Q[1] of 19
        0.48419213608836237,  // c[10]: -P[1] of 19
        0.235501645151975,  // c[11]: P[8] of 19
        0.4232102035221754,  // c[12]: Q[8] of 19
        0.4781837436243932,  // c[13]: Q[4] of 19
        0.0768648721323888,  // c[14]: P[4] of 19
        0.0003161186210583505,  // c[15]: P[5] of 19
        0.48432200167201295,  // c[16]: -Q[5] of 19
        0.19002677048035677,  // c[17]: -Q[7] of 19
        0.4454859456092568,  // c[18]: -P[7] of 19
        0.3937592850674352,  // c[19]: -Q[3] of 19
        0.28199561460730244,  // c[20]: -P[3] of 19
        0.47339199623771827,  // c[21]: P[6] of 19
        0.10231284930367265,  // c[22]: -Q[6] of 19
        0.9396926207859084,  // c[23]: -cos 2 pi 5/9
        0.3420201433256687,  // c[24]: -sin 2 pi 5/9
        0.1503837331804353,  // c[25]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[26]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.8137976813493737,  // c[27]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.29619813272602386,  // c[28]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.05555555555555555,  // c[29]: 1/18
        0.2421610524189263,  // c[30]: beta of 19
        1.7320508075688772,  // c[31]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const P x19 = io.pair(19);
        const V t0 = part<0>(x19);
        // doubled bins
        const V t1 = c[2] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3
        const V t2 = t1 + x0r;
        const V t3 = c[0] * t1;
        const V t4 = x0r - t3;
        const V t5 = part<1>(x19);
        const V t6 = c[31] * t5;
        const V t7 = t4 - t6;
        const V t8 = t4 + t6;
        const Q x23_20 = io.pairs(23, 20);
        // doubled bins
        const Q t9 = c[2] * x23_20;
        const Q x4_1 = io.pairs(4, 1);
        const Q t10 = c[2] * x4_1;
        // complex block of 3
        const Q t11 = t9 + t10;
        const Q t12 = shuffled<0, 5, 2, 7>(t9, t10);
        const Q t13 = shuffled<0, 5, 2, 7>(t10, t9);
        const Q t14 = t12 - t13;
        const Q x2_5 = io.pairs(2, 5);
        // doubled bins
        const Q t15 = c[2] * x2_5;
        const Q x17_14 = io.pairs(17, 14);
        const Q t16 = Q(c[2], -c[2], c[2], -c[2]) * x17_14;
        // complex block of 3
        const Q t17 = t15 + t16;
        const Q t18 = flipped<0, 1, 0, 1>(t16);
        const Q t19 = flipped<1, 0, 1, 0>(t15);
        const Q t20 = t18 + t19;
        const Q x28_26 = io.pairs(28, 26);
        // doubled bins
        const Q t21 = c[2] * x28_26;
        const Q x10_7 = io.pairs(10, 7);
        const Q t22 = Q(c[2], -c[2], c[2], c[2]) * x10_7;
        // complex block of 3
        const Q t23 = t21 + t22;
        const Q t24 = flipped<1, 1, 1, 0>(t22);
        const Q t25 = flipped<0, 0, 0, 1>(t21);
        const Q t26 = t24 + t25;
        const P x8 = io.pair(8);
        // doubled bins
        const P t27 = c[2] * x8;
        const P x11 = io.pair(11);
        const P t28 = P(c[2], -c[2]) * x11;
        // complex block of 3
        const P t29 = t27 + t28;
        const P t30 = flipped<0, 1>(t28);
        const P t31 = flipped<1, 0>(t27);
        const P t32 = t30 + t31;
        const Q x22_25 = io.pairs(22, 25);
        // doubled bins
        const Q t33 = c[2] * x22_25;
        const Q x16_13 = io.pairs(16, 13);
        const Q t34 = Q(c[2], -c[2], c[2], -c[2]) * x16_13;
        // complex block of 3
        const Q t35 = t33 + t34;
        const Q t36 = t33 - t34;
        const Q x3_6 = io.pairs(3, 6);
        // doubled bins
        const Q t37 = c[2] * x3_6;
        // complex block of 3
        const Q t38 = t35 + t37;
        const Q t39 = c[0] * t35;
        const Q t40 = t37 - t39;
        const Q t41 = Q(-c[1], c[1], -c[1], c[1]) * t36;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = t40 + t42;
        const Q x9_12 = io.pairs(9, 12);
        // doubled bins
        const Q t44 = c[2] * x9_12;
        const Q t45 = flipped<0, 0, 0, 1>(t23);
        // complex block of 3
        const Q t46 = t44 + t45;
        const Q t47 = Q(c[0], c[0], c[0], -c[0]) * t23;
        const Q t48 = t44 - t47;
        const Q t49 = Q(c[1], -c[1], c[1], -c[1]) * t26;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = t48 + t50;
        const Q t52 = t48 - t50;
        const Q x15_18 = io.pairs(15, 18);
        // doubled bins
        const Q t53 = c[2] * x15_18;
        const Q t54 = flipped<0, 1, 0, 1>(t11);
        // complex block of 3
        const Q t55 = t53 + t54;
        const Q t56 = Q(-c[0], c[0], -c[0], c[0]) * t11;
        const Q t57 = t56 + t53;
        const Q t58 = Q(c[1], -c[1], c[1], -c[1]) * t14;
        const Q t59 = shuffled<1, 0, 3, 2>(t58);
        const Q t60 = t57 + t59;
        const Q t61 = t57 - t59;
        const Q x21_24 = io.pairs(21, 24);
        // doubled bins
        const Q t62 = c[2] * x21_24;
        // complex block of 3
        const Q t63 = c[0] * t17;
        const Q t64 = t62 - t63;
        const Q t65 = c[1] * t20;
        const Q t66 = shuffled<1, 0, 3, 2>(t65);
        const Q t67 = t64 - t66;
        const P x27 = io.pair(27);
        // doubled bins
        const P t68 = c[2] * x27;
        // complex block of 3
        const P t69 = t29 + t68;
        const P t70 = c[0] * t29;
        const P t71 = t68 - t70;
        const P t72 = c[1] * t32;
        const P t73 = shuffled<1, 0>(t72);
        const P t74 = t71 + t73;
        const P t75 = t71 - t73;
        // complex block of 3
        const Q t76 = t40 - t42;
        const Q t77 = shuffled<0, 4, 2, 6>(t46, t51);
        const Q t78 = shuffled<1, 5, 3, 7>(t46, t51);
        const Q t79 = shuffled<0, 1, 4, 5>(t77, t78);
        const Q t80 = shuffled<0, 4, 2, 6>(t55, t60);
        const Q t81 = shuffled<1, 5, 3, 7>(t55, t60);
        const Q t82 = shuffled<0, 1, 4, 5>(t80, t81);
        const Q t83 = flipped<1, 1, 0, 0>(t82);
        // real block of 3
        const Q t84 = t79 + t83;
        const Q t85 = flipped<0, 0, 1, 1>(t79);
        const Q t86 = t82 + t85;
        const Q t87 = shuffled<2, 3, 6, 7>(t80, t81);
        const P t88 = shuffled<0, 2>(t69, t74);
        const P t89 = shuffled<1, 3>(t69, t74);
        const Q t90 = joined(t88, t89);
        // real block of 3
        const Q t91 = t87 - t90;
        const Q t92 = t87 + t90;
        const Q t93 = shuffled<0, 1, 4, 5>(t67, t61);
        const Q t94 = shuffled<2, 3, 4, 5>(t67, t52);
        const Q t95 = flipped<0, 1, 0, 1>(t94);
        // real block of 3
        const Q t96 = t93 + t95;
        const Q t97 = flipped<0, 0, 0, 1>(t43);
        const Q t98 = t96 + t97;
        const P t99 = part<1>(t61);
        // real block of 3
        const P t100 = t99 + t75;
        const P t101 = part<1>(t52);
        const P t102 = t100 + t101;
        // complex block of 3
        const Q t103 = t17 + t62;
        const Q t104 = t64 + t66;
        const Q t105 = shuffled<0, 4, 2, 6>(t103, t104);
        const Q t106 = shuffled<1, 5, 3, 7>(t103, t104);
        const Q t107 = shuffled<2, 3, 4, 5>(t105, t106);
        const Q t108 = shuffled<0, 1, 6, 7>(t105, t106);
        const Q t109 = flipped<0, 0, 1, 1>(t108);
        // real block of 3
        const Q t110 = t107 + t109;
        const Q t111 = t107 - t109;
        const Q t112 = shuffled<0, 4, 2, 6>(t38, t76);
        const Q t113 = shuffled<1, 5, 3, 7>(t38, t76);
        const Q t114 = shuffled<2, 3, 6, 7>(t112, t113);
        // real block of 3
        const Q t115 = Q(-c[0], -c[0], c[0], c[0]) * t86;
        const Q t116 = t114 + t115;
        const Q t117 = c[1] * t84;
        const Q t118 = shuffled<0, 4, 2, 6>(t116, t117);
        const Q t119 = shuffled<1, 5, 3, 7>(t116, t117);
        const Q t120 = shuffled<0, 1, 4, 5>(t118, t119);
        // real block of 9
        const Q t121 = c[5] * t120;
        const Q t122 = shuffled<1, 0, 3, 2>(t120);
        const Q t123 = Q(-c[6], c[6], -c[6], c[6]) * t122;
        const Q t124 = t121 + t123;
        const Q t125 = shuffled<2, 3, 6, 7>(t118, t119);
        // real block of 9
        const Q t126 = Q(-c[5], c[5], -c[5], c[5]) * t125;
        const Q t127 = shuffled<1, 0, 3, 2>(t125);
        const Q t128 = c[6] * t127;
        const Q t129 = t126 + t128;
        const Q t130 = shuffled<2, 3, 6, 7>(t77, t78);
        // real block of 3
        const Q t131 = c[0] * t92;
        const Q t132 = t130 - t131;
        const Q t133 = c[1] * t91;
        const Q t134 = shuffled<0, 4, 2, 6>(t132, t133);
        const Q t135 = shuffled<1, 5, 3, 7>(t132, t133);
        const Q t136 = shuffled<0, 1, 4, 5>(t134, t135);
        // real block of 9
        const Q t137 = c[3] * t136;
        const Q t138 = shuffled<1, 0, 3, 2>(t136);
        const Q t139 = Q(-c[4], c[4], -c[4], c[4]) * t138;
        const Q t140 = t137 + t139;
        const Q t141 = shuffled<2, 3, 6, 7>(t134, t135);
        // real block of 9
        const Q t142 = c[3] * t141;
        const Q t143 = shuffled<1, 0, 3, 2>(t141);
        const Q t144 = Q(-c[4], c[4], -c[4], c[4]) * t143;
        const Q t145 = t142 + t144;
        // complex block of 3
        const Q t146 = t124 + t140;
        const Q t147 = shuffled<0, 1, 4, 5>(t112, t113);
        // real block of 3
        const Q t148 = c[0] * t110;
        const Q t149 = t147 - t148;
        const Q t150 = flipped<0, 1, 0, 1>(t145);
        // complex block of 3
        const Q t151 = t129 + t150;
        // complex block of 3
        const Q t152 = Q(-c[0], c[0], -c[0], c[0]) * t146;
        // real block of 3
        const Q t153 = Q(-c[1], c[1], c[1], c[1]) * t111;
        const Q t154 = shuffled<0, 4, 2, 6>(t149, t153);
        const Q t155 = flipped<1, 1, 0, 0>(t153);
        const Q t156 = shuffled<1, 5, 3, 7>(t149, t155);
        const Q t157 = shuffled<0, 1, 4, 5>(t154, t156);
        // complex block of 3
        const Q t158 = t152 + t157;
        const Q t159 = shuffled<2, 3, 6, 7>(t154, t156);
        // complex block of 3
        const Q t160 = c[0] * t151;
        const Q t161 = t159 - t160;
        const Q t162 = shuffled<0, 5, 2, 7>(t124, t140);
        const Q t163 = shuffled<0, 5, 2, 7>(t140, t124);
        // complex block of 3
        const Q t164 = t162 - t163;
        // real block of 3
        const Q t165 = t110 + t147;
        // complex block of 3
        const Q t166 = t129 - t150;
        const Q t167 = flipped<0, 0, 1, 1>(t114);
        // real block of 3
        const Q t168 = t86 + t167;
        // real block of 3
        const Q t169 = t92 + t130;
        // real block of 3
        const Q t170 = t168 + t169;
        const Q t171 = t168 - t169;
        const P t172 = part<1>(t98);
        const V t173 = part<0>(t172);
        const V t174 = part<0>(t102);
        // real block of 3
        const V t175 = t173 + t174;
        const V t176 = part<1>(t172);
        const V t177 = part<1>(t102);
        // real block of 3
        const V t178 = t176 + t177;
        const Q t179 = shuffled<2, 3, 6, 7>(t61, t98);
        const Q t180 = joined(t75, t102);
        // real block of 3
        const Q t181 = t179 - t180;
        const Q t182 = shuffled<2, 3, 4, 5>(t52, t98);
        const P t183 = joined(t175, t178);
        const Q t184 = joined(t100, t183);
        const Q t185 = c[0] * t184;
        const Q t186 = t182 - t185;
        const Q t187 = flipped<1, 0, 1, 0>(t93);
        // real block of 3
        const Q t188 = t94 + t187;
        const Q t189 = Q(c[0], c[0], c[0], -c[0]) * t96;
        const Q t190 = t43 - t189;
        const Q t191 = c[1] * t188;
        const Q t192 = shuffled<0, 4, 2, 6>(t190, t191);
        const Q t193 = shuffled<1, 5, 3, 7>(t190, t191);
        const Q t194 = shuffled<2, 3, 6, 7>(t192, t193);
        // real block of 9
        const Q t195 = Q(c[5], c[5], -c[5], c[5]) * t194;
        const Q t196 = shuffled<1, 0, 3, 2>(t194);
        const Q t197 = Q(-c[6], c[6], c[6], c[6]) * t196;
        const Q t198 = t195 + t197;
        // real block of 3
        const Q t199 = c[1] * t181;
        const Q t200 = shuffled<0, 4, 2, 6>(t186, t199);
        const Q t201 = shuffled<1, 5, 3, 7>(t186, t199);
        const Q t202 = shuffled<0, 1, 4, 5>(t200, t201);
        // real block of 9
        const Q t203 = c[3] * t202;
        const Q t204 = shuffled<1, 0, 3, 2>(t202);
        const Q t205 = Q(-c[4], c[4], -c[4], c[4]) * t204;
        const Q t206 = t203 + t205;
        const Q t207 = flipped<0, 0, 0, 1>(t206);
        // complex block of 3
        const Q t208 = t198 + t207;
        const Q t209 = flipped<0, 1, 0, 0>(t198);
        const Q t210 = flipped<1, 0, 1, 1>(t207);
        const Q t211 = t209 + t210;
        const Q t212 = flipped<0, 1, 0, 1>(t157);
        // complex block of 3
        const Q t213 = t146 + t212;
        // spectrum block of 19, multiplier 3
        const Q t214 = c[7] * t213;
        const Q t215 = shuffled<1, 0, 3, 2>(t213);
        const Q t216 = Q(c[8], -c[8], c[8], -c[8]) * t215;
        const Q t217 = t214 + t216;
        // complex block of 3
        const Q t218 = Q(-c[1], c[1], -c[1], c[1]) * t164;
        const Q t219 = shuffled<1, 0, 3, 2>(t218);
        const Q t220 = t158 + t219;
        // complex block of 3
        const Q t221 = Q(-c[1], c[1], -c[1], c[1]) * t166;
        const Q t222 = shuffled<1, 0, 3, 2>(t221);
        const Q t223 = t161 + t222;
        // spectrum block of 19, multiplier 3
        const Q t224 = c[9] * t223;
        const Q t225 = shuffled<1, 0, 3, 2>(t223);
        const Q t226 = Q(c[10], -c[10], c[10], -c[10]) * t225;
        const Q t227 = t224 + t226;
        const Q t228 = c[11] * t220;
        const Q t229 = shuffled<1, 0, 3, 2>(t220);
        const Q t230 = Q(-c[12], c[12], -c[12], c[12]) * t229;
        const Q t231 = t228 + t230;
        // complex block of 2
        const Q t232 = t231 - t227;
        const Q t233 = t231 + t227;
        // complex block of 3
        const Q t234 = t158 - t219;
        // complex block of 3
        const Q t235 = t161 - t222;
        const Q t236 = shuffled<1, 0, 3, 2>(t234);
        // spectrum block of 19, multiplier 3
        const Q t237 = c[13] * t236;
        const Q t238 = Q(c[14], -c[14], c[14], -c[14]) * t234;
        const Q t239 = t237 + t238;
        const Q t240 = shuffled<1, 0, 3, 2>(t235);
        const Q t241 = c[15] * t240;
        const Q t242 = Q(c[16], -c[16], c[16], -c[16]) * t235;
        const Q t243 = t241 + t242;
        // complex block of 2
        const Q t244 = t239 - t243;
        const Q t245 = t239 + t243;
        // complex block of 3
        const Q t246 = t151 + t159;
        // spectrum block of 19, multiplier 3
        const Q t247 = c[17] * t246;
        const Q t248 = shuffled<1, 0, 3, 2>(t246);
        const Q t249 = Q(c[18], -c[18], c[18], -c[18]) * t248;
        const Q t250 = t247 + t249;
        const Q t251 = flipped<0, 1, 0, 1>(t250);
        // complex block of 2
        const Q t252 = t217 + t251;
        const Q t253 = flipped<0, 1, 0, 1>(t244);
        // complex block of 3, multiplier 2
        const Q t254 = t232 + t253;
        const Q t255 = Q(c[0], -c[0], c[0], -c[0]) * t254;
        const Q t256 = t252 + t255;
        const Q t257 = flipped<1, 0, 1, 0>(t217);
        // complex block of 2
        const Q t258 = t257 + t250;
        const Q t259 = flipped<0, 1, 0, 1>(t245);
        // complex block of 3, multiplier 2
        const Q t260 = t233 + t259;
        const Q t261 = c[0] * t260;
        const Q t262 = t258 - t261;
        // complex block of 3, multiplier 2
        const Q t263 = t232 - t253;
        // complex block of 3, multiplier 2
        const Q t264 = t233 - t259;
        // real block of 3
        const Q t265 = t170 + t165;
        const P t266 = joined(t2, t7);
        const P t267 = part<0>(t265);
        // spectrum block of 19, multiplier 3
        const P t268 = c[29] * t267;
        const P t269 = t266 - t268;
        const P t270 = part<1>(t265);
        const P t271 = c[30] * t270;
        // spectrum block of 2
        const P t272 = t269 + t271;
        const P t273 = t269 - t271;
        // real block of 3
        const Q t274 = c[0] * t170;
        const Q t275 = t165 - t274;
        const Q t276 = c[1] * t171;
        const Q t277 = shuffled<0, 4, 2, 6>(t275, t276);
        const Q t278 = shuffled<1, 5, 3, 7>(t275, t276);
        const Q t279 = shuffled<2, 3, 6, 7>(t277, t278);
        // spectrum block of 19, multiplier 3
        const Q t280 = Q(-c[19], c[19], -c[19], c[19]) * t279;
        const Q t281 = shuffled<1, 0, 3, 2>(t279);
        const Q t282 = c[20] * t281;
        const Q t283 = t280 + t282;
        const Q t284 = shuffled<0, 1, 4, 5>(t277, t278);
        const Q t285 = c[21] * t284;
        const Q t286 = shuffled<1, 0, 3, 2>(t284);
        const Q t287 = Q(-c[22], c[22], -c[22], c[22]) * t286;
        const Q t288 = t285 + t287;
        const Q t289 = flipped<0, 1, 0, 1>(t288);
        // complex block of 2
        const Q t290 = t283 + t289;
        const Q t291 = flipped<1, 0, 1, 0>(t283);
        const Q t292 = t288 + t291;
        const Q t293 = flipped<1, 0, 1, 0>(t252);
        // complex block of 3, multiplier 2
        const Q t294 = t254 + t293;
        // complex block of 3, multiplier 2
        const Q t295 = t260 + t258;
        const P t296 = part<0>(t290);
        const P t297 = part<1>(t290);
        const P t298 = shuffled<0, 2>(t296, t297);
        const P t299 = part<0>(t292);
        const P t300 = part<1>(t292);
        const P t301 = shuffled<0, 2>(t299, t300);
        const Q t302 = joined(t298, t301);
        const Q t303 = joined(t272, t273);
        // spectrum block of 3, multiplier 2
        const Q t304 = t302 + t303;
        const P t305 = part<0>(t294);
        const P t306 = part<1>(t294);
        const P t307 = shuffled<0, 2>(t305, t306);
        const P t308 = part<0>(t295);
        const P t309 = part<1>(t295);
        const P t310 = shuffled<0, 2>(t308, t309);
        const Q t311 = joined(t307, t310);
        // spectrum block of 3, multiplier 2
        const Q t312 = t311 + t304;
        io.out(3, 22, 54, 16, t312);
        const Q t313 = c[0] * t311;
        const Q t314 = t304 - t313;
        const P t315 = shuffled<1, 3>(t305, t306);
        const P t316 = shuffled<1, 3>(t308, t309);
        const Q t317 = joined(t315, t316);
        const Q t318 = c[1] * t317;
        const Q t319 = t314 - t318;
        io.out(21, 40, 36, 55, t319);
        const Q t320 = t314 + t318;
        io.out(33, 52, 24, 43, t320);
        // complex block of 3, multiplier 2
        const Q t321 = c[1] * t263;
        const Q t322 = shuffled<1, 0, 3, 2>(t321);
        const Q t323 = t256 + t322;
        // complex block of 3, multiplier 2
        const Q t324 = Q(c[1], -c[1], c[1], -c[1]) * t264;
        const Q t325 = shuffled<1, 0, 3, 2>(t324);
        const Q t326 = t262 + t325;
        const P t327 = part<0>(t323);
        const P t328 = part<1>(t323);
        const P t329 = shuffled<0, 2>(t327, t328);
        const P t330 = part<0>(t326);
        const P t331 = part<1>(t326);
        const P t332 = shuffled<0, 2>(t330, t331);
        const Q t333 = joined(t329, t332);
        // spectrum block of 9, multiplier 2
        const Q t334 = c[23] * t333;
        const P t335 = shuffled<1, 3>(t327, t328);
        const P t336 = shuffled<1, 3>(t330, t331);
        const Q t337 = joined(t335, t336);
        const Q t338 = Q(-c[24], -c[24], c[24], c[24]) * t337;
        const Q t339 = t334 + t338;
        const Q t340 = shuffled<0, 5, 2, 7>(t322, t256);
        const Q t341 = shuffled<0, 5, 2, 7>(t256, t322);
        // complex block of 3, multiplier 2
        const Q t342 = t340 - t341;
        // complex block of 3, multiplier 2
        const Q t343 = t262 - t325;
        const P t344 = part<0>(t342);
        const P t345 = part<1>(t342);
        const P t346 = shuffled<0, 2>(t344, t345);
        const P t347 = part<0>(t343);
        const P t348 = part<1>(t343);
        const P t349 = shuffled<0, 2>(t347, t348);
        const Q t350 = joined(t346, t349);
        // spectrum block of 9, multiplier 2
        const Q t351 = c[3] * t350;
        const P t352 = shuffled<1, 3>(t344, t345);
        const P t353 = shuffled<1, 3>(t347, t348);
        const Q t354 = joined(t352, t353);
        const Q t355 = c[4] * t354;
        const Q t356 = t351 - t355;
        // spectrum block of 3, multiplier 2
        const Q t357 = c[0] * t302;
        const Q t358 = t303 - t357;
        const P t359 = shuffled<1, 3>(t296, t297);
        const P t360 = shuffled<1, 3>(t299, t300);
        const Q t361 = joined(t359, t360);
        const Q t362 = Q(-c[1], -c[1], c[1], c[1]) * t361;
        const Q t363 = t358 + t362;
        const Q t364 = t358 - t362;
        // spectrum block of 3, multiplier 2
        const Q t365 = t356 + t364;
        io.out(15, 34, 42, 4, t365);
        const Q t366 = c[0] * t356;
        const Q t367 = t364 - t366;
        const Q t368 = c[25] * t354;
        const Q t369 = c[26] * t350;
        const Q t370 = t368 + t369;
        const Q t371 = t367 - t370;
        io.out(48, 10, 9, 28, t371);
        const Q t372 = t367 + t370;
        io.out(51, 13, 6, 25, t372);
        const Q t373 = flipped<0, 0, 1, 1>(t339);
        // spectrum block of 3, multiplier 2
        const Q t374 = t363 + t373;
        io.out(18, 37, 39, 1, t374);
        const Q t375 = Q(-c[0], -c[0], c[0], c[0]) * t339;
        const Q t376 = t375 + t363;
        const Q t377 = shuffled<0, 1, 6, 7>(t337, t333);
        const Q t378 = Q(c[27], c[27], c[28], c[28]) * t377;
        const Q t379 = shuffled<0, 1, 6, 7>(t333, t337);
        const Q t380 = Q(c[28], c[28], -c[27], -c[27]) * t379;
        const Q t381 = t378 + t380;
        const Q t382 = flipped<0, 0, 1, 1>(t381);
        const Q t383 = t376 + t382;
        io.out(12, 31, 45, 7, t383);
        const Q t384 = t376 - t382;
        io.out(27, 46, 30, 49, t384);
        // spectrum block of 19, multiplier 3
        const P t385 = t266 + t267;
        io.out(0, 19, t385);
        const P t386 = part<0>(t98);
        // real block of 3
        const P t387 = t183 + t386;
        const V t388 = part<0>(t387);
        // spectrum block of 19, multiplier 3
        const V t389 = c[29] * t388;
        const V t390 = t8 - t389;
        const V t391 = part<1>(t387);
        const V t392 = c[30] * t391;
        // spectrum block of 2
        const V t393 = t390 + t392;
        const V t394 = t390 - t392;
        const Q t395 = shuffled<0, 1, 4, 5>(t192, t193);
        // complex block of 3
        const Q t396 = t208 + t395;
        const Q t397 = flipped<0, 1, 0, 0>(t395);
        const Q t398 = Q(c[0], -c[0], c[0], c[0]) * t208;
        const Q t399 = t397 - t398;
        const Q t400 = Q(-c[1], c[1], -c[1], c[1]) * t211;
        const Q t401 = shuffled<1, 0, 3, 2>(t400);
        const Q t402 = t399 + t401;
        const Q t403 = t399 - t401;
        const Q t404 = shuffled<1, 0, 3, 2>(t201);
        const Q t405 = shuffled<2, 3, 6, 7>(t404, t402);
        // spectrum block of 19, multiplier 3
        const Q t406 = Q(c[20], c[20], c[9], c[9]) * t405;
        const Q t407 = shuffled<1, 0, 3, 2>(t405);
        const Q t408 = Q(-c[19], c[19], c[10], -c[10]) * t407;
        const Q t409 = t406 + t408;
        const Q t410 = shuffled<0, 1, 4, 5>(t396, t403);
        const Q t411 = shuffled<1, 0, 3, 2>(t410);
        const Q t412 = Q(c[8], -c[8], c[13], c[13]) * t411;
        const Q t413 = Q(c[7], c[7], c[14], -c[14]) * t410;
        const Q t414 = t412 + t413;
        const Q t415 = shuffled<2, 3, 6, 7>(t396, t403);
        const Q t416 = shuffled<1, 0, 3, 2>(t415);
        const Q t417 = Q(c[18], -c[18], c[15], c[15]) * t416;
        const Q t418 = Q(c[17], c[17], c[16], -c[16]) * t415;
        const Q t419 = t417 + t418;
        const Q t420 = shuffled<2, 3, 4, 5>(t200, t402);
        const Q t421 = Q(c[21], c[21], c[11], c[11]) * t420;
        const Q t422 = shuffled<1, 0, 3, 2>(t420);
        const Q t423 = Q(-c[22], c[22], -c[12], c[12]) * t422;
        const Q t424 = t421 + t423;
        const Q t425 = flipped<1, 0, 0, 0>(t419);
        // complex block of 2
        const Q t426 = t414 - t425;
        const Q t427 = flipped<1, 0, 0, 0>(t414);
        const Q t428 = t427 + t419;
        const Q t429 = flipped<0, 1, 0, 0>(t424);
        const Q t430 = flipped<0, 0, 1, 1>(t409);
        // complex block of 2
        const Q t431 = t429 + t430;
        const Q t432 = flipped<1, 0, 1, 1>(t430);
        const Q t433 = t424 + t432;
        const Q t434 = shuffled<2, 3, 6, 7>(t431, t433);
        const Q t435 = shuffled<2, 3, 6, 7>(t426, t428);
        const Q t436 = flipped<0, 1, 0, 1>(t435);
        // complex block of 3, multiplier 2
        const Q t437 = t434 + t436;
        const Q t438 = t434 - t436;
        const P t439 = part<0>(t431);
        const P t440 = part<0>(t433);
        const P t441 = shuffled<0, 2>(t439, t440);
        const P t442 = joined(t393, t394);
        // spectrum block of 3, multiplier 2
        const P t443 = t441 + t442;
        const Q t444 = shuffled<0, 1, 4, 5>(t426, t428);
        const Q t445 = flipped<1, 0, 0, 0>(t444);
        // complex block of 3, multiplier 2
        const Q t446 = t437 + t445;
        const Q t447 = joined(t442, t443);
        const P t448 = part<0>(t446);
        const P t449 = part<1>(t446);
        const P t450 = shuffled<0, 2>(t448, t449);
        const Q t451 = joined(t441, t450);
        // spectrum block of 3, multiplier 2
        const Q t452 = c[0] * t451;
        const Q t453 = t447 - t452;
        // complex block of 3, multiplier 2
        const Q t454 = Q(-c[0], c[0], c[0], c[0]) * t437;
        const Q t455 = t444 - t454;
        const Q t456 = Q(c[1], c[1], c[1], -c[1]) * t438;
        const Q t457 = shuffled<1, 0, 3, 2>(t456);
        const Q t458 = t455 + t457;
        const Q t459 = flipped<1, 0, 0, 0>(t455);
        const Q t460 = flipped<0, 1, 1, 1>(t457);
        const Q t461 = t459 + t460;
        const P t462 = part<0>(t461);
        const P t463 = part<1>(t461);
        const P t464 = shuffled<0, 2>(t462, t463);
        const P t465 = part<0>(t458);
        const P t466 = part<1>(t458);
        const P t467 = shuffled<0, 2>(t465, t466);
        const Q t468 = joined(t464, t467);
        // spectrum block of 9, multiplier 2
        const Q t469 = Q(c[3], c[3], c[23], c[23]) * t468;
        const P t470 = shuffled<1, 3>(t462, t463);
        const P t471 = shuffled<1, 3>(t465, t466);
        const Q t472 = joined(t470, t471);
        const Q t473 = Q(c[4], c[4], c[24], -c[24]) * t472;
        const Q t474 = t469 - t473;
        // spectrum block of 3, multiplier 2
        const P t475 = t450 + t443;
        io.out(41, 35, t475);
        const P t476 = shuffled<1, 3>(t439, t440);
        const P t477 = shuffled<1, 3>(t448, t449);
        const Q t478 = joined(t476, t477);
        // spectrum block of 3, multiplier 2
        const Q t479 = Q(c[1], -c[1], c[1], c[1]) * t478;
        const Q t480 = t453 - t479;
        const P t481 = part<1>(t480);
        const V t482 = part<0>(t481);
        io.out(2, t482);
        const V t483 = part<1>(t481);
        io.out(17, t483);
        const Q t484 = t453 + t479;
        const P t485 = part<1>(t484);
        const V t486 = part<1>(t485);
        io.out(5, t486);
        const V t487 = part<0>(t485);
        io.out(14, t487);
        const Q t488 = shuffled<0, 1, 4, 5>(t484, t480);
        // spectrum block of 3, multiplier 2
        const Q t489 = Q(c[0], c[0], c[0], -c[0]) * t474;
        const Q t490 = t488 - t489;
        const Q t491 = shuffled<0, 5, 2, 7>(t472, t468);
        const Q t492 = shuffled<0, 1, 6, 7>(t472, t491);
        const Q t493 = Q(c[25], c[25], c[27], c[28]) * t492;
        const Q t494 = shuffled<0, 5, 2, 7>(t468, t472);
        const Q t495 = shuffled<0, 1, 6, 7>(t468, t494);
        const Q t496 = Q(c[26], c[26], c[28], -c[27]) * t495;
        const Q t497 = t493 + t496;
        const Q t498 = flipped<0, 0, 0, 1>(t474);
        const Q t499 = t488 + t498;
        io.out(53, 23, 56, 20, t499);
        const Q t500 = flipped<0, 0, 1, 0>(t497);
        const Q t501 = t490 - t500;
        io.out(29, 47, 50, 26, t501);
        const Q t502 = t490 + t500;
        io.out(32, 44, 8, 11, t502);
        // spectrum block of 19, multiplier 3
        const V t503 = t8 + t388;
        io.out(38, t503);
    }
};

}  // namespace zulg
