// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 31.
// Complex DFT of 31 points, Rader block; two lines of a stage to a register.
// 99 sums, 79 differences, 99 products of registers, which do the 1138 steps of the graph, those with
// `scale` included; 84 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<31> {
    static constexpr int steps = 1138;  // with `scale`
    static constexpr double inverseRoot = 0.1796053020267749;  // 1/sqrt(31), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.03988273291964531,  // c[6]: -Q[1] of 31
        0.3711833750943932,  // c[7]: P[2] of 31
        0.3690354256607867,  // c[8]: -P[1] of 31
        0.0008245188371257438,  // c[9]: -Q[2] of 31
        0.3676914951710987,  // c[10]: P[11] of 31
        0.22434412781271781,  // c[11]: -P[8] of 31
        0.05080100546858957,  // c[12]: -Q[11] of 31
        0.2957152178933792,  // c[13]: Q[8] of 31
        0.12276133942171241,  // c[14]: P[9] of 31
        0.3484386235098738,  // c[15]: P[12] of 31
        0.35029620511956006,  // c[16]: -Q[9] of 31
        0.127938670558679,  // c[17]: Q[12] of 31
        0.20210094150400285,  // c[18]: Q[3] of 31
        0.30349444463155195,  // c[19]: P[6] of 31
        0.31134062892750347,  // c[20]: P[3] of 31
        0.21370283071490567,  // c[21]: -Q[6] of 31
        0.36985241937462743,  // c[22]: -Q[7] of 31
        0.057732967694591485,  // c[23]: P[4] of 31
        0.031416009621091305,  // c[24]: P[7] of 31
        0.36666699090448956,  // c[25]: Q[4] of 31
        0.36643087194413576,  // c[26]: Q[13] of 31
        0.3215874570406464,  // c[27]: Q[14] of 31
        0.0592131223973046,  // c[28]: -P[13] of 31
        0.1853625778087589,  // c[29]: -P[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.3417205692768941,  // c[31]: P[10] of 31
        0.2580069240952765,  // c[32]: Q[5] of 31
        0.1449304326594425,  // c[33]: Q[10] of 31
        0.26685240283098827,  // c[34]: P[5] of 31
        0.1255134364645471,  // c[35]: sin 2 pi 1/3 times Q[10] of 31
        0.23110095991255428,  // c[36]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[37]: sin 2 pi 1/3 times Q[5] of 31
        0.2959386939894704,  // c[38]: sin 2 pi 1/3 times P[10] of 31
        0.1855921454276674,  // c[39]: beta of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x16_13 = io.pairs(16, 13);
        const Q x2_21 = io.pairs(2, 21);
        // real block of 5
        const Q t0 = x16_13 + x2_21;
        const Q t1 = x16_13 - x2_21;
        const Q x4_11 = io.pairs(4, 11);
        const Q x8_22 = io.pairs(8, 22);
        const Q t2 = x4_11 + x8_22;
        const Q t3 = x4_11 - x8_22;
        const Q t4 = t0 + t2;
        const Q x18_3 = io.pairs(18, 3);
        const Q x10_12 = io.pairs(10, 12);
        // real block of 5
        const Q t5 = x18_3 + x10_12;
        const Q t6 = x18_3 - x10_12;
        const Q x20_24 = io.pairs(20, 24);
        const Q x9_17 = io.pairs(9, 17);
        const Q t7 = x20_24 + x9_17;
        const Q t8 = x20_24 - x9_17;
        const Q t9 = t5 + t7;
        const Q x7_27 = io.pairs(7, 27);
        const Q x14_23 = io.pairs(14, 23);
        // real block of 5
        const Q t10 = x7_27 + x14_23;
        const Q t11 = x7_27 - x14_23;
        const Q x28_15 = io.pairs(28, 15);
        const Q x19_29 = io.pairs(19, 29);
        const Q t12 = x28_15 + x19_29;
        const Q t13 = x28_15 - x19_29;
        const Q t14 = t12 + t10;
        const Q x1_26 = io.pairs(1, 26);
        // real block of 5
        const Q t15 = t4 + x1_26;
        const Q x25_30 = io.pairs(25, 30);
        // real block of 5
        const Q t16 = t14 + x25_30;
        const Q x5_6 = io.pairs(5, 6);
        // real block of 5
        const Q t17 = t9 + x5_6;
        const Q t18 = shuffled<0, 1, 6, 7>(t16, t15);
        // real block of 3
        const Q t19 = t17 + t18;
        // real block of 5
        const Q t20 = c[0] * t0;
        const Q t21 = c[1] * t2;
        const Q t22 = t20 - t21;
        const Q t23 = t22 + x1_26;
        const Q t24 = c[1] * t0;
        const Q t25 = x1_26 - t24;
        const Q t26 = c[0] * t2;
        const Q t27 = t25 + t26;
        // real block of 5
        const Q t28 = c[0] * t12;
        const Q t29 = c[1] * t10;
        const Q t30 = t28 - t29;
        const Q t31 = t30 + x25_30;
        const Q t32 = c[1] * t12;
        const Q t33 = x25_30 - t32;
        const Q t34 = c[0] * t10;
        const Q t35 = t33 + t34;
        // real block of 5
        const Q t36 = c[0] * t5;
        const Q t37 = c[1] * t7;
        const Q t38 = t36 - t37;
        const Q t39 = t38 + x5_6;
        const Q t40 = c[1] * t5;
        const Q t41 = x5_6 - t40;
        const Q t42 = c[0] * t7;
        const Q t43 = t41 + t42;
        const Q t44 = shuffled<0, 1, 4, 5>(t31, t35);
        const Q t45 = shuffled<0, 1, 4, 5>(t39, t43);
        // complex block of 3
        const Q t46 = t44 + t45;
        const Q t47 = shuffled<2, 3, 6, 7>(t39, t43);
        const Q t48 = shuffled<2, 3, 6, 7>(t23, t27);
        // complex block of 3
        const Q t49 = t47 + t48;
        // real block of 5
        const Q t50 = c[2] * t3;
        const Q t51 = c[3] * t1;
        const Q t52 = t50 - t51;
        const Q t53 = c[2] * t1;
        const Q t54 = c[3] * t3;
        const Q t55 = t53 + t54;
        // real block of 5
        const Q t56 = c[2] * t11;
        const Q t57 = c[3] * t13;
        const Q t58 = t56 - t57;
        const Q t59 = c[2] * t13;
        const Q t60 = c[3] * t11;
        const Q t61 = t59 + t60;
        // real block of 5
        const Q t62 = c[2] * t8;
        const Q t63 = c[3] * t6;
        const Q t64 = t62 - t63;
        const Q t65 = c[2] * t6;
        const Q t66 = c[3] * t8;
        const Q t67 = t65 + t66;
        const Q t68 = shuffled<0, 1, 4, 5>(t58, t61);
        const Q t69 = shuffled<0, 1, 4, 5>(t64, t67);
        // complex block of 3
        const Q t70 = t68 + t69;
        const Q t71 = shuffled<0, 1, 6, 7>(t68, t69);
        const Q t72 = shuffled<0, 1, 6, 7>(t69, t68);
        const Q t73 = t71 - t72;
        const Q t74 = shuffled<2, 3, 6, 7>(t64, t67);
        const Q t75 = shuffled<2, 3, 6, 7>(t52, t55);
        // complex block of 3
        const Q t76 = t74 + t75;
        const Q t77 = shuffled<0, 1, 6, 7>(t74, t75);
        const Q t78 = shuffled<0, 1, 6, 7>(t75, t74);
        const Q t79 = t77 - t78;
        const Q t80 = shuffled<0, 1, 6, 7>(t18, t17);
        const Q t81 = shuffled<0, 1, 6, 7>(t17, t18);
        // real block of 3
        const Q t82 = t80 - t81;
        const Q t83 = c[5] * t82;
        const P t84 = part<0>(t83);
        const P t85 = part<1>(t83);
        // complex block of 2
        const P t86 = t84 + t85;
        const P t87 = t85 - t84;
        const Q t88 = shuffled<0, 1, 6, 7>(t15, t16);
        // real block of 3
        const Q t89 = t19 + t88;
        const P t90 = part<0>(t89);
        const P t91 = part<1>(t89);
        // real block of 2
        const P t92 = t90 + t91;
        const P t93 = t90 - t91;
        // real block of 3
        const Q t94 = c[4] * t19;
        const Q t95 = t88 - t94;
        const P t96 = part<0>(t95);
        const P t97 = part<1>(t95);
        // complex block of 2
        const P t98 = t96 + t97;
        const P t99 = t96 - t97;
        // complex block of 3
        const Q t100 = t44 - t45;
        const Q t101 = c[4] * t70;
        const Q t102 = shuffled<0, 1, 6, 7>(t52, t101);
        const Q t103 = shuffled<0, 1, 4, 5>(t101, t55);
        const Q t104 = t102 - t103;
        const Q t105 = c[5] * t100;
        const Q t106 = t104 - t105;
        const Q t107 = t104 + t105;
        const Q t108 = shuffled<0, 1, 4, 5>(t23, t27);
        const Q t109 = c[4] * t46;
        const Q t110 = t108 - t109;
        const Q t111 = c[5] * t73;
        const Q t112 = t110 + t111;
        const Q t113 = t110 - t111;
        // complex block of 3
        const Q t114 = t47 - t48;
        const Q t115 = c[4] * t76;
        const Q t116 = shuffled<2, 3, 6, 7>(t58, t115);
        const Q t117 = shuffled<0, 1, 6, 7>(t115, t61);
        const Q t118 = t116 - t117;
        const Q t119 = c[5] * t114;
        const Q t120 = t118 - t119;
        const Q t121 = t118 + t119;
        const Q t122 = shuffled<2, 3, 6, 7>(t31, t35);
        const Q t123 = c[4] * t49;
        const Q t124 = t122 - t123;
        const Q t125 = c[5] * t79;
        const Q t126 = t124 + t125;
        const Q t127 = t124 - t125;
        // complex block of 2
        const Q t128 = t112 + t126;
        const Q t129 = t106 + t120;
        const Q t130 = t112 - t126;
        const Q t131 = t106 - t120;
        // complex block of 2
        const Q t132 = t113 + t127;
        const Q t133 = t107 + t121;
        const Q t134 = t113 - t127;
        const Q t135 = t107 - t121;
        // complex block of 3
        const Q t136 = t46 + t108;
        // complex block of 3
        const Q t137 = t49 + t122;
        // complex block of 2
        const Q t138 = t136 + t137;
        const Q t139 = t136 - t137;
        const Q t140 = shuffled<0, 1, 6, 7>(t102, t103);
        // complex block of 3
        const Q t141 = t70 + t140;
        const Q t142 = shuffled<0, 1, 6, 7>(t116, t117);
        // complex block of 3
        const Q t143 = t76 + t142;
        // complex block of 2
        const Q t144 = t141 + t143;
        const Q t145 = shuffled<0, 1, 6, 7>(t141, t143);
        const Q t146 = shuffled<0, 1, 6, 7>(t143, t141);
        const Q t147 = t145 - t146;
        const P x0 = io.pair(0);
        // complex block of 31
        const P t148 = x0 + t92;
        io.pair(0, t148);
        const P t149 = c[30] * t92;
        const P t150 = x0 - t149;
        const P t151 = shuffled<1, 0>(t99);
        const Q t152 = joined(t98, t151);
        const Q t153 = Q(c[31], c[31], c[32], c[32]) * t152;
        const P t154 = shuffled<1, 0>(t87);
        const Q t155 = joined(t86, t154);
        const Q t156 = Q(c[33], c[33], c[34], c[34]) * t155;
        const Q t157 = t153 + t156;
        // spectrum block of 3
        const P t158 = c[35] * t98;
        const P t159 = shuffled<0, 3>(t151, t154);
        // spectrum block of 3
        const P t160 = P(c[36], c[37]) * t159;
        const Q t161 = joined(t158, t160);
        // spectrum block of 3
        const P t162 = c[38] * t86;
        const P t163 = shuffled<0, 3>(t154, t151);
        // spectrum block of 3
        const P t164 = P(c[37], c[36]) * t163;
        const Q t165 = joined(t162, t164);
        // spectrum block of 3
        const Q t166 = t161 - t165;
        const P t167 = shuffled<1, 0>(t93);
        // complex block of 31
        const P t168 = c[39] * t167;
        const Q t169 = joined(t150, t168);
        // spectrum block of 3
        const Q t170 = t157 + t169;
        const Q t171 = flipped<0, 0, 0, 1>(t169);
        const Q t172 = Q(c[4], c[4], c[4], -c[4]) * t157;
        const Q t173 = t171 - t172;
        const Q t174 = flipped<1, 1, 0, 0>(t166);
        const Q t175 = t173 + t174;
        const Q t176 = t173 - t174;
        const Q t177 = shuffled<1, 0, 3, 2>(t131);
        const Q t178 = shuffled<0, 1, 6, 7>(t177, t133);
        // complex block of 31
        const Q t179 = Q(c[6], c[6], c[7], c[7]) * t178;
        const Q t180 = shuffled<1, 0, 3, 2>(t130);
        const Q t181 = shuffled<0, 1, 6, 7>(t180, t132);
        const Q t182 = Q(c[8], c[8], -c[9], -c[9]) * t181;
        const Q t183 = t179 + t182;
        const Q t184 = shuffled<1, 0, 3, 2>(t134);
        const Q t185 = shuffled<0, 1, 6, 7>(t184, t129);
        const Q t186 = Q(c[10], -c[10], c[11], c[11]) * t185;
        const Q t187 = shuffled<1, 0, 3, 2>(t135);
        const Q t188 = shuffled<0, 1, 6, 7>(t187, t128);
        const Q t189 = Q(-c[12], c[12], c[13], c[13]) * t188;
        const Q t190 = t186 + t189;
        const Q t191 = flipped<0, 1, 0, 0>(t190);
        // complex block of 3
        const Q t192 = t183 - t191;
        const Q t193 = t191 + t183;
        const Q t194 = shuffled<0, 1, 6, 7>(t178, t185);
        // complex block of 31
        const Q t195 = Q(c[8], -c[8], c[13], c[13]) * t194;
        const Q t196 = shuffled<0, 1, 6, 7>(t181, t188);
        const Q t197 = Q(c[6], -c[6], c[11], c[11]) * t196;
        const Q t198 = t195 - t197;
        const Q t199 = shuffled<0, 1, 6, 7>(t185, t181);
        const Q t200 = Q(c[12], c[12], c[7], c[7]) * t199;
        const Q t201 = shuffled<0, 1, 6, 7>(t188, t178);
        const Q t202 = Q(c[10], c[10], c[9], c[9]) * t201;
        const Q t203 = t200 + t202;
        const Q t204 = flipped<1, 0, 0, 0>(t203);
        // complex block of 3
        const Q t205 = t198 + t204;
        const Q t206 = flipped<0, 1, 0, 0>(t198);
        const Q t207 = flipped<1, 0, 1, 1>(t204);
        const Q t208 = t206 + t207;
        const Q t209 = shuffled<1, 0, 3, 2>(t147);
        const Q t210 = shuffled<0, 1, 6, 7>(t209, t138);
        // complex block of 31
        const Q t211 = Q(c[14], -c[14], c[15], c[15]) * t210;
        const Q t212 = shuffled<1, 0, 3, 2>(t139);
        const Q t213 = shuffled<0, 1, 6, 7>(t212, t144);
        const Q t214 = Q(-c[16], c[16], c[17], c[17]) * t213;
        const Q t215 = t211 + t214;
        const Q t216 = Q(c[16], c[16], c[17], c[17]) * t210;
        const Q t217 = Q(c[14], c[14], -c[15], -c[15]) * t213;
        const Q t218 = t216 + t217;
        // complex block of 3
        const Q t219 = t192 + t218;
        const Q t220 = t205 + t215;
        const Q t221 = flipped<0, 1, 0, 0>(t218);
        const Q t222 = Q(c[4], -c[4], c[4], c[4]) * t192;
        const Q t223 = t221 - t222;
        const Q t224 = c[4] * t205;
        const Q t225 = t215 - t224;
        const Q t226 = Q(c[5], -c[5], c[5], c[5]) * t193;
        const Q t227 = t225 + t226;
        const Q t228 = t225 - t226;
        const Q t229 = shuffled<2, 3, 4, 5>(t212, t138);
        // complex block of 31
        const Q t230 = Q(c[18], c[18], c[19], c[19]) * t229;
        const Q t231 = shuffled<2, 3, 4, 5>(t209, t144);
        const Q t232 = Q(c[20], c[20], c[21], c[21]) * t231;
        const Q t233 = t230 + t232;
        const Q t234 = shuffled<0, 1, 6, 7>(t229, t231);
        const Q t235 = Q(c[20], -c[20], c[19], c[19]) * t234;
        const Q t236 = shuffled<0, 1, 6, 7>(t231, t229);
        const Q t237 = Q(c[18], -c[18], c[21], c[21]) * t236;
        const Q t238 = t235 - t237;
        const Q t239 = shuffled<2, 3, 4, 5>(t180, t132);
        const Q t240 = Q(c[22], c[22], c[23], c[23]) * t239;
        const Q t241 = shuffled<2, 3, 4, 5>(t177, t133);
        const Q t242 = Q(c[24], c[24], c[25], c[25]) * t241;
        const Q t243 = t240 + t242;
        const Q t244 = shuffled<2, 3, 4, 5>(t184, t129);
        const Q t245 = Q(c[26], -c[26], c[27], c[27]) * t244;
        const Q t246 = shuffled<2, 3, 4, 5>(t187, t128);
        const Q t247 = Q(c[28], -c[28], c[29], c[29]) * t246;
        const Q t248 = t245 - t247;
        const Q t249 = flipped<1, 0, 0, 0>(t243);
        // complex block of 3
        const Q t250 = t248 + t249;
        const Q t251 = t248 - t249;
        // complex block of 31
        const Q t252 = Q(c[24], -c[24], c[25], c[25]) * t239;
        const Q t253 = Q(c[22], -c[22], c[23], c[23]) * t241;
        const Q t254 = t252 - t253;
        const Q t255 = shuffled<0, 1, 6, 7>(t246, t244);
        const Q t256 = Q(c[26], c[26], c[29], c[29]) * t255;
        const Q t257 = shuffled<0, 1, 6, 7>(t244, t246);
        const Q t258 = Q(c[28], c[28], c[27], c[27]) * t257;
        const Q t259 = t256 + t258;
        const Q t260 = flipped<0, 1, 0, 0>(t254);
        // complex block of 3
        const Q t261 = t259 + t260;
        const Q t262 = flipped<0, 1, 0, 0>(t259);
        const Q t263 = t254 - t262;
        const Q t264 = flipped<0, 1, 0, 0>(t261);
        const Q t265 = t238 - t264;
        const Q t266 = flipped<0, 1, 0, 0>(t233);
        const Q t267 = t250 + t266;
        const Q t268 = Q(c[4], -c[4], c[4], c[4]) * t261;
        const Q t269 = t268 + t238;
        const Q t270 = Q(c[4], -c[4], c[4], c[4]) * t250;
        const Q t271 = t233 - t270;
        const Q t272 = Q(c[5], -c[5], c[5], c[5]) * t263;
        const Q t273 = t271 - t272;
        const Q t274 = flipped<0, 1, 0, 0>(t271);
        const Q t275 = flipped<0, 1, 0, 0>(t272);
        const Q t276 = t274 + t275;
        const Q t277 = c[5] * t251;
        const Q t278 = t269 + t277;
        // complex block of 3
        const Q t279 = Q(-c[5], c[5], c[5], c[5]) * t208;
        const Q t280 = t223 + t279;
        const Q t281 = shuffled<2, 3, 6, 7>(t265, t278);
        // spectrum block of 5
        const Q t282 = c[3] * t281;
        const Q t283 = shuffled<2, 3, 6, 7>(t219, t280);
        const Q t284 = c[2] * t283;
        const Q t285 = t282 + t284;
        const Q t286 = c[2] * t281;
        const Q t287 = c[3] * t283;
        const Q t288 = t286 - t287;
        const Q t289 = shuffled<0, 1, 4, 5>(t219, t280);
        // spectrum block of 5
        const Q t290 = c[3] * t289;
        const Q t291 = shuffled<0, 1, 4, 5>(t265, t278);
        const Q t292 = Q(c[2], -c[2], c[2], c[2]) * t291;
        const Q t293 = t290 + t292;
        const Q t294 = c[3] * t291;
        const Q t295 = Q(c[2], -c[2], c[2], c[2]) * t289;
        const Q t296 = t294 - t295;
        const Q t297 = shuffled<2, 3, 6, 7>(t267, t273);
        // spectrum block of 5
        const Q t298 = c[0] * t297;
        const Q t299 = shuffled<2, 3, 6, 7>(t220, t227);
        const Q t300 = c[1] * t299;
        const Q t301 = t298 - t300;
        const Q t302 = shuffled<0, 1, 4, 5>(t170, t175);
        const Q t303 = t301 + t302;
        const Q t304 = c[1] * t297;
        const Q t305 = t302 - t304;
        const Q t306 = c[0] * t299;
        const Q t307 = t305 + t306;
        const Q t308 = shuffled<0, 1, 4, 5>(t220, t227);
        // spectrum block of 5
        const Q t309 = c[0] * t308;
        const Q t310 = shuffled<0, 1, 4, 5>(t267, t273);
        const Q t311 = Q(c[1], c[1], c[1], -c[1]) * t310;
        const Q t312 = t309 - t311;
        const Q t313 = shuffled<2, 3, 6, 7>(t170, t175);
        const Q t314 = flipped<0, 1, 0, 0>(t313);
        const Q t315 = t312 + t314;
        const Q t316 = Q(c[1], -c[1], c[1], c[1]) * t308;
        const Q t317 = t313 - t316;
        const Q t318 = flipped<0, 1, 0, 0>(t317);
        const Q t319 = Q(c[0], c[0], c[0], -c[0]) * t310;
        const Q t320 = t318 + t319;
        // spectrum block of 5
        const Q t321 = t303 - t285;
        const Q t322 = flipped<0, 1, 0, 0>(t293);
        // spectrum block of 5
        const Q t323 = t315 + t322;
        // spectrum block of 2
        const Q t324 = t321 + t323;
        io.pairs(2, 10, t324);
        const Q t325 = t321 - t323;
        io.pairs(29, 21, t325);
        // spectrum block of 5
        const Q t326 = t303 + t285;
        // spectrum block of 5
        const Q t327 = t315 - t322;
        // spectrum block of 2
        const Q t328 = t326 + t327;
        io.pairs(16, 18, t328);
        const Q t329 = t326 - t327;
        io.pairs(15, 13, t329);
        // spectrum block of 5
        const Q t330 = t307 - t288;
        // spectrum block of 5
        const Q t331 = t320 - t296;
        // spectrum block of 2
        const Q t332 = t330 + t331;
        io.pairs(4, 20, t332);
        const Q t333 = t330 - t331;
        io.pairs(27, 11, t333);
        // spectrum block of 5
        const Q t334 = t307 + t288;
        // spectrum block of 5
        const Q t335 = t320 + t296;
        // spectrum block of 2
        const Q t336 = t334 + t335;
        io.pairs(8, 9, t336);
        const Q t337 = t334 - t335;
        io.pairs(23, 22, t337);
        // complex block of 3
        const Q t338 = t269 - t277;
        // complex block of 3
        const Q t339 = t223 - t279;
        const Q t340 = shuffled<2, 3, 4, 5>(t338, t339);
        // spectrum block of 5
        const Q t341 = c[3] * t340;
        const Q t342 = shuffled<2, 3, 4, 5>(t339, t338);
        const Q t343 = c[2] * t342;
        const Q t344 = t341 + t343;
        const Q t345 = Q(-c[3], -c[3], c[3], c[3]) * t342;
        const Q t346 = Q(c[2], c[2], -c[2], -c[2]) * t340;
        const Q t347 = t345 + t346;
        const Q t348 = shuffled<2, 3, 4, 5>(t276, t228);
        const Q t349 = shuffled<2, 3, 4, 5>(t228, t276);
        const Q t350 = t348 + t349;
        const Q t351 = t350 + t176;
        const Q t352 = c[0] * t348;
        const Q t353 = c[1] * t349;
        const Q t354 = t352 - t353;
        const Q t355 = t354 + t176;
        const Q t356 = c[1] * t348;
        const Q t357 = t176 - t356;
        const Q t358 = c[0] * t349;
        const Q t359 = t357 + t358;
        const Q t360 = flipped<1, 1, 0, 0>(t344);
        const Q t361 = t355 + t360;
        const Q t362 = shuffled<0, 1, 4, 5>(t351, t361);
        const Q t363 = shuffled<2, 3, 6, 7>(t351, t361);
        // spectrum block of 2
        const Q t364 = t362 + t363;
        io.pairs(25, 19, t364);
        const Q t365 = t362 - t363;
        io.pairs(6, 12, t365);
        // spectrum block of 5
        const Q t366 = t355 - t360;
        const P t367 = part<0>(t366);
        const P t368 = part<1>(t366);
        // spectrum block of 2
        const P t369 = t367 + t368;
        io.pair(28, t369);
        const P t370 = t367 - t368;
        io.pair(3, t370);
        // spectrum block of 5
        const Q t371 = t359 - t347;
        const Q t372 = t359 + t347;
        const Q t373 = shuffled<0, 1, 4, 5>(t371, t372);
        const Q t374 = shuffled<2, 3, 6, 7>(t371, t372);
        // spectrum block of 2
        const Q t375 = t373 + t374;
        io.pairs(7, 14, t375);
        const Q t376 = t373 - t374;
        io.pairs(24, 17, t376);
        // spectrum block of 5
        const Q t377 = t297 + t299;
        const Q t378 = t377 + t302;
        const Q t379 = flipped<0, 0, 0, 1>(t310);
        // spectrum block of 5
        const Q t380 = t308 + t379;
        const Q t381 = t380 + t314;
        // spectrum block of 2
        const Q t382 = t378 + t381;
        io.pairs(1, 5, t382);
        const Q t383 = t378 - t381;
        io.pairs(30, 26, t383);
    }
};

}  // namespace zulg
