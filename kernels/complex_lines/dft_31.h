// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 31.
// Complex DFT of 31 points, Rader block; two lines of a stage to a register.
// 101 sums, 77 differences, 99 products of registers, which do the 1138 steps of the graph, those with
// `scale` included; 80 shuffles, 21 changes of sign.
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
        0.20210094150400285,  // c[10]: Q[3] of 31
        0.30349444463155195,  // c[11]: P[6] of 31
        0.31134062892750347,  // c[12]: P[3] of 31
        0.21370283071490567,  // c[13]: -Q[6] of 31
        0.36985241937462743,  // c[14]: -Q[7] of 31
        0.057732967694591485,  // c[15]: P[4] of 31
        0.031416009621091305,  // c[16]: P[7] of 31
        0.36666699090448956,  // c[17]: Q[4] of 31
        0.2957152178933792,  // c[18]: Q[8] of 31
        0.22434412781271781,  // c[19]: -P[8] of 31
        0.05080100546858957,  // c[20]: -Q[11] of 31
        0.3676914951710987,  // c[21]: P[11] of 31
        0.12276133942171241,  // c[22]: P[9] of 31
        0.3484386235098738,  // c[23]: P[12] of 31
        0.35029620511956006,  // c[24]: -Q[9] of 31
        0.127938670558679,  // c[25]: Q[12] of 31
        0.36643087194413576,  // c[26]: Q[13] of 31
        0.3215874570406464,  // c[27]: Q[14] of 31
        0.0592131223973046,  // c[28]: -P[13] of 31
        0.1853625778087589,  // c[29]: -P[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.3417205692768941,  // c[31]: P[10] of 31
        0.2580069240952765,  // c[32]: Q[5] of 31
        0.1449304326594425,  // c[33]: Q[10] of 31
        0.26685240283098827,  // c[34]: P[5] of 31
        0.1855921454276674,  // c[35]: beta of 31
        0.1255134364645471,  // c[36]: sin 2 pi 1/3 times Q[10] of 31
        0.23110095991255428,  // c[37]: sin 2 pi 1/3 times P[5] of 31
        0.2234405506187928,  // c[38]: sin 2 pi 1/3 times Q[5] of 31
        0.2959386939894704,  // c[39]: sin 2 pi 1/3 times P[10] of 31
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
        const Q x1_26 = io.pairs(1, 26);
        const Q t5 = t4 + x1_26;
        const Q t6 = c[0] * t0;
        const Q t7 = c[1] * t2;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x1_26;
        const Q t10 = c[2] * t3;
        const Q t11 = c[3] * t1;
        const Q t12 = t10 - t11;
        const Q t13 = c[1] * t0;
        const Q t14 = x1_26 - t13;
        const Q t15 = c[0] * t2;
        const Q t16 = t14 + t15;
        const Q t17 = c[2] * t1;
        const Q t18 = c[3] * t3;
        const Q t19 = t17 + t18;
        const Q x28_15 = io.pairs(28, 15);
        const Q x19_29 = io.pairs(19, 29);
        // real block of 5
        const Q t20 = x28_15 + x19_29;
        const Q t21 = x28_15 - x19_29;
        const Q x7_27 = io.pairs(7, 27);
        const Q x14_23 = io.pairs(14, 23);
        const Q t22 = x7_27 + x14_23;
        const Q t23 = x7_27 - x14_23;
        const Q t24 = t20 + t22;
        const Q x25_30 = io.pairs(25, 30);
        const Q t25 = t24 + x25_30;
        const Q t26 = c[0] * t20;
        const Q t27 = c[1] * t22;
        const Q t28 = t26 - t27;
        const Q t29 = t28 + x25_30;
        const Q t30 = c[2] * t23;
        const Q t31 = c[3] * t21;
        const Q t32 = t30 - t31;
        const Q t33 = c[1] * t20;
        const Q t34 = x25_30 - t33;
        const Q t35 = c[0] * t22;
        const Q t36 = t34 + t35;
        const Q t37 = c[2] * t21;
        const Q t38 = c[3] * t23;
        const Q t39 = t37 + t38;
        const Q x18_3 = io.pairs(18, 3);
        const Q x10_12 = io.pairs(10, 12);
        // real block of 5
        const Q t40 = x18_3 + x10_12;
        const Q t41 = x18_3 - x10_12;
        const Q x20_24 = io.pairs(20, 24);
        const Q x9_17 = io.pairs(9, 17);
        const Q t42 = x20_24 + x9_17;
        const Q t43 = x20_24 - x9_17;
        const Q t44 = t40 + t42;
        const Q x5_6 = io.pairs(5, 6);
        const Q t45 = t44 + x5_6;
        const Q t46 = c[0] * t40;
        const Q t47 = c[1] * t42;
        const Q t48 = t46 - t47;
        const Q t49 = t48 + x5_6;
        const Q t50 = c[2] * t43;
        const Q t51 = c[3] * t41;
        const Q t52 = t50 - t51;
        const Q t53 = c[1] * t40;
        const Q t54 = x5_6 - t53;
        const Q t55 = c[0] * t42;
        const Q t56 = t54 + t55;
        const Q t57 = c[2] * t41;
        const Q t58 = c[3] * t43;
        const Q t59 = t57 + t58;
        const Q t60 = shuffled<0, 1, 6, 7>(t25, t5);
        // real block of 3
        const Q t61 = t45 + t60;
        const Q t62 = shuffled<0, 1, 6, 7>(t60, t45);
        const Q t63 = shuffled<0, 1, 6, 7>(t45, t60);
        const Q t64 = t62 - t63;
        const Q t65 = shuffled<0, 1, 6, 7>(t5, t25);
        const Q t66 = t61 + t65;
        const Q t67 = c[4] * t61;
        const Q t68 = t65 - t67;
        const P t69 = part<0>(t66);
        const P t70 = part<1>(t66);
        // real block of 2
        const P t71 = t69 + t70;
        const P t72 = t69 - t70;
        const P t73 = part<0>(t68);
        const P t74 = part<1>(t68);
        // complex block of 2
        const P t75 = t73 + t74;
        // real block of 3
        const Q t76 = c[5] * t64;
        const P t77 = part<0>(t76);
        const P t78 = part<1>(t76);
        // complex block of 2
        const P t79 = t77 + t78;
        const P t80 = t73 - t74;
        const P t81 = t78 - t77;
        const Q t82 = shuffled<0, 1, 4, 5>(t29, t36);
        const Q t83 = shuffled<0, 1, 4, 5>(t49, t56);
        // complex block of 3
        const Q t84 = t82 + t83;
        const Q t85 = shuffled<0, 1, 4, 5>(t32, t39);
        const Q t86 = shuffled<0, 1, 4, 5>(t52, t59);
        const Q t87 = t85 + t86;
        const Q t88 = t82 - t83;
        const Q t89 = shuffled<0, 1, 6, 7>(t85, t86);
        const Q t90 = shuffled<0, 1, 6, 7>(t86, t85);
        const Q t91 = t89 - t90;
        const Q t92 = shuffled<0, 1, 4, 5>(t9, t16);
        const Q t93 = t84 + t92;
        const Q t94 = shuffled<0, 1, 4, 5>(t12, t19);
        const Q t95 = t87 + t94;
        const Q t96 = c[4] * t84;
        const Q t97 = t92 - t96;
        const Q t98 = Q(-c[4], -c[4], c[4], c[4]) * t87;
        const Q t99 = flipped<0, 0, 1, 1>(t94);
        const Q t100 = t98 + t99;
        const Q t101 = c[5] * t91;
        const Q t102 = t97 + t101;
        const Q t103 = c[5] * t88;
        const Q t104 = t100 - t103;
        const Q t105 = t97 - t101;
        const Q t106 = t100 + t103;
        const Q t107 = shuffled<2, 3, 6, 7>(t49, t56);
        const Q t108 = shuffled<2, 3, 6, 7>(t9, t16);
        // complex block of 3
        const Q t109 = t107 + t108;
        const Q t110 = shuffled<2, 3, 6, 7>(t52, t59);
        const Q t111 = shuffled<2, 3, 6, 7>(t12, t19);
        const Q t112 = t110 + t111;
        const Q t113 = t107 - t108;
        const Q t114 = shuffled<0, 1, 6, 7>(t110, t111);
        const Q t115 = shuffled<0, 1, 6, 7>(t111, t110);
        const Q t116 = t114 - t115;
        const Q t117 = shuffled<2, 3, 6, 7>(t29, t36);
        const Q t118 = t109 + t117;
        const Q t119 = shuffled<2, 3, 6, 7>(t32, t39);
        const Q t120 = t112 + t119;
        const Q t121 = c[4] * t109;
        const Q t122 = t117 - t121;
        const Q t123 = Q(-c[4], -c[4], c[4], c[4]) * t112;
        const Q t124 = flipped<0, 0, 1, 1>(t119);
        const Q t125 = t123 + t124;
        const Q t126 = c[5] * t116;
        const Q t127 = t122 + t126;
        const Q t128 = c[5] * t113;
        const Q t129 = t125 - t128;
        const Q t130 = t122 - t126;
        const Q t131 = t125 + t128;
        // complex block of 2
        const Q t132 = t93 + t118;
        const Q t133 = t95 + t120;
        const Q t134 = t93 - t118;
        const Q t135 = shuffled<0, 1, 6, 7>(t95, t120);
        const Q t136 = shuffled<0, 1, 6, 7>(t120, t95);
        const Q t137 = t135 - t136;
        // complex block of 2
        const Q t138 = t102 + t127;
        const Q t139 = t104 + t129;
        const Q t140 = t102 - t127;
        const Q t141 = t104 - t129;
        // complex block of 2
        const Q t142 = t105 + t130;
        const Q t143 = t106 + t131;
        const Q t144 = t105 - t130;
        const Q t145 = t106 - t131;
        const P x0 = io.pair(0);
        // complex block of 31
        const P t146 = x0 + t71;
        io.pair(0, t146);
        const P t147 = c[30] * t71;
        const P t148 = x0 - t147;
        const Q t149 = shuffled<1, 0, 3, 2>(t141);
        const Q t150 = shuffled<0, 1, 6, 7>(t149, t143);
        const Q t151 = Q(c[6], c[6], c[7], c[7]) * t150;
        const Q t152 = shuffled<1, 0, 3, 2>(t140);
        const Q t153 = shuffled<0, 1, 6, 7>(t152, t142);
        const Q t154 = Q(c[8], c[8], -c[9], -c[9]) * t153;
        const Q t155 = t151 + t154;
        const Q t156 = shuffled<1, 0, 3, 2>(t134);
        const Q t157 = shuffled<2, 3, 4, 5>(t156, t132);
        const Q t158 = Q(c[10], c[10], c[11], c[11]) * t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t137);
        const Q t160 = shuffled<2, 3, 4, 5>(t159, t133);
        const Q t161 = Q(c[12], c[12], c[13], c[13]) * t160;
        const Q t162 = t158 + t161;
        const Q t163 = shuffled<0, 1, 6, 7>(t157, t160);
        const Q t164 = Q(c[12], -c[12], c[11], c[11]) * t163;
        const Q t165 = shuffled<0, 1, 6, 7>(t160, t157);
        const Q t166 = Q(c[10], -c[10], c[13], c[13]) * t165;
        const Q t167 = t164 - t166;
        const Q t168 = shuffled<2, 3, 4, 5>(t152, t142);
        const Q t169 = Q(c[14], c[14], c[15], c[15]) * t168;
        const Q t170 = shuffled<2, 3, 4, 5>(t149, t143);
        const Q t171 = Q(c[16], c[16], c[17], c[17]) * t170;
        const Q t172 = t169 + t171;
        const Q t173 = Q(c[16], -c[16], c[17], c[17]) * t168;
        const Q t174 = Q(c[14], -c[14], c[15], c[15]) * t170;
        const Q t175 = t173 - t174;
        const Q t176 = shuffled<0, 1, 6, 7>(t150, t139);
        const Q t177 = Q(c[8], -c[8], c[18], c[18]) * t176;
        const Q t178 = shuffled<0, 1, 6, 7>(t153, t138);
        const Q t179 = Q(c[6], -c[6], c[19], c[19]) * t178;
        const Q t180 = t177 - t179;
        const P t181 = shuffled<1, 0>(t80);
        const Q t182 = joined(t75, t181);
        const Q t183 = Q(c[31], c[31], c[32], c[32]) * t182;
        const P t184 = shuffled<1, 0>(t81);
        const Q t185 = joined(t79, t184);
        const Q t186 = Q(c[33], c[33], c[34], c[34]) * t185;
        const Q t187 = t183 + t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t144);
        const Q t189 = shuffled<0, 1, 6, 7>(t188, t153);
        const Q t190 = Q(c[20], c[20], c[7], c[7]) * t189;
        const Q t191 = shuffled<1, 0, 3, 2>(t145);
        const Q t192 = shuffled<0, 1, 6, 7>(t191, t150);
        const Q t193 = Q(c[21], c[21], c[9], c[9]) * t192;
        const Q t194 = t190 + t193;
        const Q t195 = shuffled<0, 1, 6, 7>(t189, t176);
        const Q t196 = Q(c[21], -c[21], c[19], c[19]) * t195;
        const Q t197 = shuffled<0, 1, 6, 7>(t192, t178);
        const Q t198 = Q(-c[20], c[20], c[18], c[18]) * t197;
        const Q t199 = t196 + t198;
        const Q t200 = shuffled<0, 1, 6, 7>(t159, t132);
        const Q t201 = Q(c[22], -c[22], c[23], c[23]) * t200;
        const Q t202 = shuffled<0, 1, 6, 7>(t156, t133);
        const Q t203 = Q(-c[24], c[24], c[25], c[25]) * t202;
        const Q t204 = t201 + t203;
        const Q t205 = Q(c[24], c[24], c[25], c[25]) * t200;
        const Q t206 = Q(c[22], c[22], -c[23], -c[23]) * t202;
        const Q t207 = t205 + t206;
        const Q t208 = shuffled<2, 3, 4, 5>(t188, t139);
        const Q t209 = Q(c[26], -c[26], c[27], c[27]) * t208;
        const Q t210 = shuffled<2, 3, 4, 5>(t191, t138);
        const Q t211 = Q(c[28], -c[28], c[29], c[29]) * t210;
        const Q t212 = t209 - t211;
        const Q t213 = shuffled<0, 1, 6, 7>(t210, t208);
        const Q t214 = Q(c[26], c[26], c[29], c[29]) * t213;
        const Q t215 = shuffled<0, 1, 6, 7>(t208, t210);
        const Q t216 = Q(c[28], c[28], c[27], c[27]) * t215;
        const Q t217 = t214 + t216;
        const Q t218 = flipped<0, 1, 0, 0>(t175);
        // complex block of 3
        const Q t219 = t217 + t218;
        const Q t220 = flipped<1, 0, 0, 0>(t172);
        const Q t221 = t212 + t220;
        const Q t222 = flipped<0, 1, 0, 0>(t217);
        const Q t223 = t175 - t222;
        const Q t224 = t212 - t220;
        const Q t225 = flipped<0, 1, 0, 0>(t219);
        const Q t226 = t167 - t225;
        const Q t227 = flipped<0, 1, 0, 0>(t162);
        const Q t228 = t221 + t227;
        const Q t229 = Q(c[4], -c[4], c[4], c[4]) * t219;
        const Q t230 = t229 + t167;
        const Q t231 = Q(c[4], -c[4], c[4], c[4]) * t221;
        const Q t232 = t162 - t231;
        const Q t233 = c[5] * t224;
        const Q t234 = t230 + t233;
        const Q t235 = Q(c[5], -c[5], c[5], c[5]) * t223;
        const Q t236 = t232 - t235;
        const Q t237 = t230 - t233;
        const Q t238 = flipped<0, 1, 0, 0>(t232);
        const Q t239 = flipped<0, 1, 0, 0>(t235);
        const Q t240 = t238 + t239;
        const Q t241 = flipped<0, 1, 0, 0>(t199);
        // complex block of 3
        const Q t242 = t155 - t241;
        const Q t243 = flipped<1, 0, 0, 0>(t194);
        const Q t244 = t180 + t243;
        const Q t245 = t241 + t155;
        const Q t246 = flipped<0, 1, 0, 0>(t180);
        const Q t247 = flipped<1, 0, 1, 1>(t243);
        const Q t248 = t246 + t247;
        const Q t249 = t242 + t207;
        const Q t250 = t244 + t204;
        const Q t251 = flipped<0, 1, 0, 0>(t207);
        const Q t252 = Q(c[4], -c[4], c[4], c[4]) * t242;
        const Q t253 = t251 - t252;
        const Q t254 = c[4] * t244;
        const Q t255 = t204 - t254;
        const Q t256 = Q(-c[5], c[5], c[5], c[5]) * t248;
        const Q t257 = t253 + t256;
        const Q t258 = Q(c[5], -c[5], c[5], c[5]) * t245;
        const Q t259 = t255 + t258;
        const Q t260 = t253 - t256;
        const Q t261 = t255 - t258;
        const P t262 = shuffled<1, 0>(t72);
        // complex block of 31
        const P t263 = c[35] * t262;
        const Q t264 = joined(t148, t263);
        // spectrum block of 3
        const Q t265 = t187 + t264;
        const Q t266 = flipped<0, 0, 0, 1>(t264);
        const Q t267 = Q(c[4], c[4], c[4], -c[4]) * t187;
        const Q t268 = t266 - t267;
        const P t269 = c[36] * t75;
        const P t270 = shuffled<0, 3>(t181, t184);
        // spectrum block of 3
        const P t271 = P(c[37], c[38]) * t270;
        const Q t272 = joined(t269, t271);
        // spectrum block of 3
        const P t273 = c[39] * t79;
        const P t274 = shuffled<0, 3>(t184, t181);
        // spectrum block of 3
        const P t275 = P(c[38], c[37]) * t274;
        const Q t276 = joined(t273, t275);
        // spectrum block of 3
        const Q t277 = t272 - t276;
        const Q t278 = flipped<1, 1, 0, 0>(t277);
        const Q t279 = t268 + t278;
        const Q t280 = t268 - t278;
        const Q t281 = shuffled<2, 3, 6, 7>(t228, t236);
        const Q t282 = shuffled<2, 3, 6, 7>(t250, t259);
        // spectrum block of 5
        const Q t283 = t281 + t282;
        const Q t284 = shuffled<0, 1, 4, 5>(t265, t279);
        const Q t285 = t283 + t284;
        const Q t286 = c[0] * t281;
        const Q t287 = c[1] * t282;
        const Q t288 = t286 - t287;
        const Q t289 = t288 + t284;
        const Q t290 = shuffled<2, 3, 6, 7>(t226, t234);
        const Q t291 = c[3] * t290;
        const Q t292 = shuffled<2, 3, 6, 7>(t249, t257);
        const Q t293 = c[2] * t292;
        const Q t294 = t291 + t293;
        const Q t295 = t289 - t294;
        const Q t296 = t289 + t294;
        const Q t297 = c[1] * t281;
        const Q t298 = t284 - t297;
        const Q t299 = c[0] * t282;
        const Q t300 = t298 + t299;
        const Q t301 = c[2] * t290;
        const Q t302 = c[3] * t292;
        const Q t303 = t301 - t302;
        const Q t304 = t300 - t303;
        const Q t305 = t300 + t303;
        const Q t306 = shuffled<0, 1, 4, 5>(t250, t259);
        const Q t307 = shuffled<0, 1, 4, 5>(t228, t236);
        const Q t308 = flipped<0, 0, 0, 1>(t307);
        // spectrum block of 5
        const Q t309 = t306 + t308;
        const Q t310 = shuffled<2, 3, 6, 7>(t265, t279);
        const Q t311 = flipped<0, 1, 0, 0>(t310);
        const Q t312 = t309 + t311;
        const Q t313 = c[0] * t306;
        const Q t314 = Q(c[1], c[1], c[1], -c[1]) * t307;
        const Q t315 = t313 - t314;
        const Q t316 = t315 + t311;
        const Q t317 = shuffled<0, 1, 4, 5>(t249, t257);
        const Q t318 = c[3] * t317;
        const Q t319 = shuffled<0, 1, 4, 5>(t226, t234);
        const Q t320 = Q(c[2], -c[2], c[2], c[2]) * t319;
        const Q t321 = t318 + t320;
        const Q t322 = flipped<0, 1, 0, 0>(t321);
        const Q t323 = t316 + t322;
        const Q t324 = t316 - t322;
        const Q t325 = Q(c[1], -c[1], c[1], c[1]) * t306;
        const Q t326 = t310 - t325;
        const Q t327 = flipped<0, 1, 0, 0>(t326);
        const Q t328 = Q(c[0], c[0], c[0], -c[0]) * t307;
        const Q t329 = t327 + t328;
        const Q t330 = c[3] * t319;
        const Q t331 = Q(c[2], -c[2], c[2], c[2]) * t317;
        const Q t332 = t330 - t331;
        const Q t333 = t329 - t332;
        const Q t334 = t329 + t332;
        // spectrum block of 2
        const Q t335 = t285 + t312;
        io.pairs(1, 5, t335);
        const Q t336 = t285 - t312;
        io.pairs(30, 26, t336);
        // spectrum block of 2
        const Q t337 = t295 + t323;
        io.pairs(2, 10, t337);
        const Q t338 = t295 - t323;
        io.pairs(29, 21, t338);
        // spectrum block of 2
        const Q t339 = t304 + t333;
        io.pairs(4, 20, t339);
        const Q t340 = t304 - t333;
        io.pairs(27, 11, t340);
        // spectrum block of 2
        const Q t341 = t305 + t334;
        io.pairs(8, 9, t341);
        const Q t342 = t305 - t334;
        io.pairs(23, 22, t342);
        // spectrum block of 2
        const Q t343 = t296 + t324;
        io.pairs(16, 18, t343);
        const Q t344 = t296 - t324;
        io.pairs(15, 13, t344);
        const Q t345 = shuffled<2, 3, 4, 5>(t240, t261);
        const Q t346 = shuffled<2, 3, 4, 5>(t261, t240);
        // spectrum block of 5
        const Q t347 = t345 + t346;
        const Q t348 = t347 + t280;
        const Q t349 = c[0] * t345;
        const Q t350 = c[1] * t346;
        const Q t351 = t349 - t350;
        const Q t352 = t351 + t280;
        const Q t353 = shuffled<2, 3, 4, 5>(t237, t260);
        const Q t354 = c[3] * t353;
        const Q t355 = shuffled<2, 3, 4, 5>(t260, t237);
        const Q t356 = c[2] * t355;
        const Q t357 = t354 + t356;
        const Q t358 = flipped<1, 1, 0, 0>(t357);
        const Q t359 = t352 + t358;
        const Q t360 = t352 - t358;
        const Q t361 = c[1] * t345;
        const Q t362 = t280 - t361;
        const Q t363 = c[0] * t346;
        const Q t364 = t362 + t363;
        const Q t365 = Q(-c[3], -c[3], c[3], c[3]) * t355;
        const Q t366 = Q(c[2], c[2], -c[2], -c[2]) * t353;
        const Q t367 = t365 + t366;
        const Q t368 = t364 - t367;
        const Q t369 = t364 + t367;
        const Q t370 = shuffled<0, 1, 4, 5>(t348, t359);
        const Q t371 = shuffled<2, 3, 6, 7>(t348, t359);
        // spectrum block of 2
        const Q t372 = t370 + t371;
        io.pairs(25, 19, t372);
        const Q t373 = t370 - t371;
        io.pairs(6, 12, t373);
        const Q t374 = shuffled<0, 1, 4, 5>(t368, t369);
        const Q t375 = shuffled<2, 3, 6, 7>(t368, t369);
        // spectrum block of 2
        const Q t376 = t374 + t375;
        io.pairs(7, 14, t376);
        const Q t377 = t374 - t375;
        io.pairs(24, 17, t377);
        const P t378 = part<0>(t360);
        const P t379 = part<1>(t360);
        // spectrum block of 2
        const P t380 = t378 + t379;
        io.pair(28, t380);
        const P t381 = t378 - t379;
        io.pair(3, t381);
    }
};

}  // namespace zulg
