// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 37.
// Complex DFT of 37 points, Rader block; two lines of a stage to a register.
// 119 sums, 100 differences, 112 products of registers, which do the 1382 steps of the graph, those with
// `scale` included; 68 shuffles, 17 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<37> {
    static constexpr int steps = 1382;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 4/9
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.766044443118978,  // c[4]: cos 2 pi 8/9
        0.6427876096865394,  // c[5]: -sin 2 pi 8/9
        0.29619813272602386,  // c[6]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[7]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.6634139481689384,  // c[8]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.2578482977363278,  // c[10]: Q[9] of 37
        0.21843027770589768,  // c[11]: -P[9] of 37
        0.2349547827807796,  // c[12]: -Q[5] of 37
        0.29019472587628237,  // c[13]: -P[1] of 37
        0.24288635390370164,  // c[14]: P[5] of 37
        0.1731604803001738,  // c[15]: Q[1] of 37
        0.3301590368394409,  // c[16]: -P[13] of 37
        0.3368755881752301,  // c[17]: P[17] of 37
        0.07205928987611672,  // c[18]: Q[13] of 37
        0.026690240834250763,  // c[19]: Q[17] of 37
        0.3103516055691282,  // c[20]: P[4] of 37
        0.24397448521981976,  // c[21]: P[8] of 37
        0.13371391769319224,  // c[22]: Q[4] of 37
        0.2338246809597342,  // c[23]: Q[8] of 37
        0.17138312220807392,  // c[24]: P[14] of 37
        0.25216731301218065,  // c[25]: Q[10] of 37
        0.2912479292396942,  // c[26]: Q[14] of 37
        0.22496483527968195,  // c[27]: -P[10] of 37
        0.3290788923998385,  // c[28]: Q[6] of 37
        0.19211188317920547,  // c[29]: P[2] of 37
        0.07684148255397624,  // c[30]: -P[6] of 37
        0.27801178968802176,  // c[31]: Q[2] of 37
        0.12424540759822993,  // c[32]: P[12] of 37
        0.10416787634306994,  // c[33]: P[16] of 37
        0.3142620078134601,  // c[34]: -Q[12] of 37
        0.32147563578344845,  // c[35]: Q[16] of 37
        0.3200973041246296,  // c[36]: P[3] of 37
        0.22329890434335598,  // c[37]: -Q[7] of 37
        0.10832934393017396,  // c[38]: Q[3] of 37
        0.25364370716273305,  // c[39]: P[7] of 37
        0.15947907926271018,  // c[40]: -P[15] of 37
        0.2870996561549517,  // c[41]: Q[11] of 37
        0.2979328013860101,  // c[42]: -Q[15] of 37
        0.1782451073659696,  // c[43]: P[11] of 37
        0.027777777777777776,  // c[44]: 1/36
        0.1689656258416172,  // c[45]: beta of 37
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x26_29 = io.pairs(26, 29);
        const Q x10_14 = io.pairs(10, 14);
        // real block of 3
        const Q t0 = x26_29 + x10_14;
        const Q t1 = x26_29 - x10_14;
        const Q x1_31 = io.pairs(1, 31);
        const Q t2 = t0 + x1_31;
        const Q t3 = c[0] * t0;
        const Q t4 = x1_31 - t3;
        const Q x9_20 = io.pairs(9, 20);
        const Q x12_2 = io.pairs(12, 2);
        // real block of 3
        const Q t5 = x9_20 + x12_2;
        const Q t6 = x9_20 - x12_2;
        const Q x16_15 = io.pairs(16, 15);
        const Q t7 = t5 + x16_15;
        const Q t8 = c[0] * t5;
        const Q t9 = x16_15 - t8;
        const Q x33_24 = io.pairs(33, 24);
        const Q x7_32 = io.pairs(7, 32);
        // real block of 3
        const Q t10 = x33_24 + x7_32;
        const Q t11 = x33_24 - x7_32;
        const Q x34_18 = io.pairs(34, 18);
        const Q t12 = t10 + x34_18;
        const Q t13 = c[0] * t10;
        const Q t14 = x34_18 - t13;
        // real block of 3
        const Q t15 = t7 + t12;
        const Q t16 = t7 - t12;
        // real block of 9, multiplier 4
        const Q t17 = c[2] * t9;
        // real block of 3
        const Q t18 = c[1] * t6;
        // real block of 9, multiplier 4
        const Q t19 = c[3] * t18;
        const Q t20 = t17 + t19;
        const Q t21 = c[4] * t14;
        // real block of 3
        const Q t22 = c[1] * t11;
        // real block of 9, multiplier 4
        const Q t23 = c[5] * t22;
        const Q t24 = t21 + t23;
        // complex block of 3
        const Q t25 = t24 - t20;
        // real block of 9, multiplier 4
        const Q t26 = c[2] * t18;
        const Q t27 = c[3] * t9;
        const Q t28 = t26 - t27;
        const Q t29 = c[5] * t14;
        const Q t30 = c[4] * t22;
        const Q t31 = t29 - t30;
        // complex block of 3
        const Q t32 = t28 + t31;
        const Q x4_13 = io.pairs(4, 13);
        const Q x30_5 = io.pairs(30, 5);
        // real block of 3
        const Q t33 = x4_13 + x30_5;
        const Q t34 = x4_13 - x30_5;
        const Q x3_19 = io.pairs(3, 19);
        const Q t35 = t33 + x3_19;
        const Q t36 = c[0] * t33;
        const Q t37 = x3_19 - t36;
        const Q x28_17 = io.pairs(28, 17);
        const Q x25_35 = io.pairs(25, 35);
        // real block of 3
        const Q t38 = x28_17 + x25_35;
        const Q t39 = x28_17 - x25_35;
        const Q x21_22 = io.pairs(21, 22);
        const Q t40 = t38 + x21_22;
        const Q t41 = c[0] * t38;
        const Q t42 = x21_22 - t41;
        // real block of 3
        const Q t43 = t40 + t35;
        const Q t44 = t40 - t35;
        // real block of 9, multiplier 4
        const Q t45 = c[2] * t42;
        // real block of 3
        const Q t46 = c[1] * t39;
        // real block of 9, multiplier 4
        const Q t47 = c[3] * t46;
        const Q t48 = t45 + t47;
        const Q t49 = c[4] * t37;
        // real block of 3
        const Q t50 = c[1] * t34;
        // real block of 9, multiplier 4
        const Q t51 = c[5] * t50;
        const Q t52 = t49 + t51;
        // complex block of 3
        const Q t53 = t52 - t48;
        // real block of 9, multiplier 4
        const Q t54 = c[2] * t46;
        const Q t55 = c[3] * t42;
        const Q t56 = t54 - t55;
        const Q t57 = c[5] * t37;
        const Q t58 = c[4] * t50;
        const Q t59 = t57 - t58;
        // complex block of 3
        const Q t60 = t56 + t59;
        const Q x11_8 = io.pairs(11, 8);
        const Q x27_23 = io.pairs(27, 23);
        // real block of 3
        const Q t61 = x11_8 + x27_23;
        const Q t62 = x11_8 - x27_23;
        const Q x36_6 = io.pairs(36, 6);
        const Q t63 = t61 + x36_6;
        const Q t64 = c[0] * t61;
        const Q t65 = x36_6 - t64;
        // real block of 3
        const Q t66 = t15 + t2;
        // real block of 3
        const Q t67 = t43 + t63;
        // real block of 2
        const Q t68 = t66 + t67;
        const Q t69 = t66 - t67;
        const P t70 = part<0>(t68);
        const P t71 = part<1>(t68);
        // real block of 2
        const P t72 = t70 + t71;
        const P t73 = t70 - t71;
        // real block of 3
        const Q t74 = c[0] * t15;
        const Q t75 = t2 - t74;
        // complex block of 3
        const Q t76 = t20 + t24;
        // real block of 3
        const Q t77 = c[1] * t1;
        // complex block of 3
        const Q t78 = c[0] * t32;
        const Q t79 = t77 + t78;
        const Q t80 = c[1] * t76;
        const Q t81 = t80 - t79;
        const Q t82 = t79 + t80;
        const Q t83 = t28 - t31;
        const Q t84 = c[0] * t25;
        const Q t85 = t4 - t84;
        const Q t86 = c[1] * t83;
        const Q t87 = t85 + t86;
        const Q t88 = t85 - t86;
        const Q t89 = t25 + t4;
        const Q t90 = t32 - t77;
        // real block of 3
        const Q t91 = c[0] * t43;
        const Q t92 = t63 - t91;
        // complex block of 3
        const Q t93 = t48 + t52;
        // real block of 3
        const Q t94 = c[1] * t62;
        // complex block of 3
        const Q t95 = c[0] * t60;
        const Q t96 = t94 + t95;
        const Q t97 = c[1] * t93;
        const Q t98 = t97 - t96;
        const Q t99 = t96 + t97;
        const Q t100 = t56 - t59;
        const Q t101 = c[0] * t53;
        const Q t102 = t65 - t101;
        const Q t103 = c[1] * t100;
        const Q t104 = t102 + t103;
        const Q t105 = t102 - t103;
        const Q t106 = t53 + t65;
        const Q t107 = t60 - t94;
        const Q t108 = shuffled<0, 1, 4, 5>(t89, t88);
        const Q t109 = shuffled<0, 1, 4, 5>(t106, t105);
        // complex block of 2
        const Q t110 = t108 + t109;
        const Q t111 = shuffled<2, 3, 6, 7>(t89, t88);
        const Q t112 = shuffled<2, 3, 6, 7>(t106, t105);
        // complex block of 2
        const Q t113 = t111 + t112;
        // complex block of 2
        const Q t114 = t110 + t113;
        const Q t115 = t110 - t113;
        const Q t116 = shuffled<0, 1, 4, 5>(t90, t82);
        const Q t117 = shuffled<0, 1, 4, 5>(t107, t99);
        // complex block of 2
        const Q t118 = t116 + t117;
        const Q t119 = shuffled<2, 3, 6, 7>(t90, t82);
        const Q t120 = shuffled<2, 3, 6, 7>(t107, t99);
        // complex block of 2
        const Q t121 = t119 + t120;
        // complex block of 2
        const Q t122 = t118 + t121;
        const Q t123 = t118 - t121;
        // complex block of 2
        const Q t124 = t108 - t109;
        // complex block of 2
        const Q t125 = t119 - t120;
        // complex block of 2
        const Q t126 = t124 + t125;
        const Q t127 = t124 - t125;
        // complex block of 2
        const Q t128 = t116 - t117;
        // complex block of 2
        const Q t129 = t111 - t112;
        // complex block of 2
        const Q t130 = t128 - t129;
        const Q t131 = t128 + t129;
        const Q t132 = shuffled<0, 1, 4, 5>(t75, t87);
        const Q t133 = shuffled<0, 1, 4, 5>(t92, t104);
        // complex block of 2
        const Q t134 = t132 + t133;
        const Q t135 = shuffled<2, 3, 6, 7>(t75, t87);
        const Q t136 = shuffled<2, 3, 6, 7>(t92, t104);
        // complex block of 2
        const Q t137 = t135 + t136;
        // complex block of 2
        const Q t138 = t134 + t137;
        const Q t139 = t134 - t137;
        // real block of 3
        const Q t140 = c[1] * t16;
        const Q t141 = shuffled<0, 1, 4, 5>(t140, t81);
        // real block of 3
        const Q t142 = c[1] * t44;
        const Q t143 = shuffled<0, 1, 4, 5>(t142, t98);
        // complex block of 2
        const Q t144 = t141 + t143;
        const Q t145 = shuffled<2, 3, 6, 7>(t140, t81);
        const Q t146 = shuffled<2, 3, 6, 7>(t142, t98);
        // complex block of 2
        const Q t147 = t145 + t146;
        // complex block of 2
        const Q t148 = t144 + t147;
        const Q t149 = shuffled<0, 1, 6, 7>(t147, t144);
        const Q t150 = shuffled<0, 1, 6, 7>(t144, t147);
        const Q t151 = t149 - t150;
        // complex block of 2
        const Q t152 = t132 - t133;
        const Q t153 = shuffled<0, 1, 6, 7>(t146, t145);
        const Q t154 = shuffled<0, 1, 6, 7>(t145, t146);
        // complex block of 2
        const Q t155 = t153 - t154;
        // complex block of 2
        const Q t156 = t152 + t155;
        const Q t157 = t152 - t155;
        const Q t158 = shuffled<0, 1, 6, 7>(t143, t141);
        const Q t159 = shuffled<0, 1, 6, 7>(t141, t143);
        // complex block of 2
        const Q t160 = t158 - t159;
        // complex block of 2
        const Q t161 = t135 - t136;
        // complex block of 2
        const Q t162 = t160 - t161;
        const Q t163 = t160 + t161;
        const P x0 = io.pair(0);
        // complex block of 37
        const P t164 = x0 + t72;
        io.pair(0, t164);
        const P t165 = c[44] * t72;
        const P t166 = x0 - t165;
        const P t167 = c[45] * t73;
        // spectrum block of 2
        const P t168 = t166 + t167;
        const P t169 = t166 - t167;
        const Q t170 = shuffled<1, 0, 3, 2>(t69);
        // complex block of 37
        const Q t171 = Q(c[10], -c[10], c[10], c[10]) * t170;
        const Q t172 = shuffled<2, 3, 0, 1>(t170);
        const Q t173 = Q(-c[11], c[11], c[11], c[11]) * t172;
        const Q t174 = t171 + t173;
        const Q t175 = joined(t168, t169);
        const Q t176 = flipped<0, 0, 0, 1>(t174);
        // spectrum block of 2
        const Q t177 = t175 + t176;
        const Q t178 = t175 - t176;
        const Q t179 = shuffled<0, 1, 6, 7>(t127, t131);
        const Q t180 = shuffled<1, 0, 3, 2>(t179);
        // complex block of 37
        const Q t181 = Q(-c[12], c[12], -c[13], c[13]) * t180;
        const Q t182 = shuffled<0, 1, 6, 7>(t131, t127);
        const Q t183 = shuffled<1, 0, 3, 2>(t182);
        const Q t184 = Q(c[14], -c[14], c[15], -c[15]) * t183;
        const Q t185 = t181 + t184;
        const Q t186 = shuffled<1, 0, 3, 2>(t130);
        const Q t187 = Q(c[16], c[16], -c[17], c[17]) * t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t126);
        const Q t189 = Q(c[18], c[18], c[19], -c[19]) * t188;
        const Q t190 = t187 + t189;
        const Q t191 = flipped<0, 1, 0, 0>(t190);
        // complex block of 2
        const Q t192 = t191 + t185;
        const Q t193 = flipped<0, 1, 0, 0>(t185);
        const Q t194 = t190 - t193;
        const Q t195 = shuffled<1, 0, 3, 2>(t131);
        // complex block of 37
        const Q t196 = Q(c[12], c[12], c[15], c[15]) * t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t127);
        const Q t198 = Q(c[14], c[14], c[13], c[13]) * t197;
        const Q t199 = t196 + t198;
        const Q t200 = Q(c[18], -c[18], c[19], c[19]) * t186;
        const Q t201 = Q(-c[16], c[16], c[17], c[17]) * t188;
        const Q t202 = t200 + t201;
        const Q t203 = flipped<1, 0, 0, 0>(t199);
        // complex block of 2
        const Q t204 = t202 + t203;
        const Q t205 = flipped<1, 1, 1, 0>(t203);
        const Q t206 = flipped<0, 0, 0, 1>(t202);
        const Q t207 = t205 + t206;
        // complex block of 37
        const Q t208 = Q(c[20], c[20], c[21], c[21]) * t114;
        const Q t209 = Q(c[22], c[22], c[23], c[23]) * t122;
        const Q t210 = t208 - t209;
        const Q t211 = shuffled<0, 1, 6, 7>(t115, t123);
        const Q t212 = Q(c[24], c[24], c[25], c[25]) * t211;
        const Q t213 = shuffled<0, 1, 6, 7>(t123, t115);
        const Q t214 = Q(c[26], c[26], -c[27], -c[27]) * t213;
        const Q t215 = t212 + t214;
        // complex block of 2
        const Q t216 = t210 + t215;
        const Q t217 = t210 - t215;
        // complex block of 37
        const Q t218 = Q(c[20], c[20], c[21], c[21]) * t122;
        const Q t219 = Q(c[22], c[22], c[23], c[23]) * t114;
        const Q t220 = t218 + t219;
        const Q t221 = Q(c[26], c[26], c[27], c[27]) * t211;
        const Q t222 = Q(-c[24], -c[24], c[25], c[25]) * t213;
        const Q t223 = t221 + t222;
        // complex block of 2
        const Q t224 = t220 - t223;
        const Q t225 = t220 + t223;
        const Q t226 = flipped<0, 0, 0, 1>(t204);
        // complex block of 2
        const Q t227 = t224 + t226;
        const Q t228 = t216 + t192;
        const Q t229 = t224 - t226;
        const Q t230 = t216 - t192;
        const Q t231 = flipped<0, 1, 0, 0>(t194);
        // complex block of 2
        const Q t232 = t225 + t231;
        const Q t233 = t217 - t207;
        const Q t234 = t225 - t231;
        const Q t235 = t217 + t207;
        const Q t236 = shuffled<0, 1, 6, 7>(t151, t139);
        // complex block of 37
        const Q t237 = Q(c[28], c[28], c[29], c[29]) * t236;
        const Q t238 = shuffled<0, 1, 6, 7>(t139, t151);
        const Q t239 = Q(-c[30], -c[30], c[31], c[31]) * t238;
        const Q t240 = t237 + t239;
        const Q t241 = Q(c[32], c[32], c[33], c[33]) * t138;
        const Q t242 = Q(c[34], c[34], c[35], c[35]) * t148;
        const Q t243 = t241 - t242;
        // complex block of 2
        const Q t244 = t243 + t240;
        const Q t245 = t243 - t240;
        // complex block of 37
        const Q t246 = Q(c[30], c[30], c[31], c[31]) * t236;
        const Q t247 = Q(c[28], c[28], -c[29], -c[29]) * t238;
        const Q t248 = t246 + t247;
        const Q t249 = Q(c[32], c[32], c[33], c[33]) * t148;
        const Q t250 = Q(c[34], c[34], c[35], c[35]) * t138;
        const Q t251 = t249 + t250;
        const Q t252 = flipped<0, 0, 1, 1>(t248);
        // complex block of 2
        const Q t253 = t251 + t252;
        const Q t254 = flipped<1, 1, 0, 0>(t251);
        const Q t255 = t254 + t248;
        const Q t256 = shuffled<0, 1, 6, 7>(t157, t163);
        const Q t257 = shuffled<1, 0, 3, 2>(t256);
        // complex block of 37
        const Q t258 = Q(c[36], c[36], -c[37], c[37]) * t257;
        const Q t259 = shuffled<0, 1, 6, 7>(t163, t157);
        const Q t260 = shuffled<1, 0, 3, 2>(t259);
        const Q t261 = Q(c[38], c[38], c[39], -c[39]) * t260;
        const Q t262 = t258 + t261;
        const Q t263 = shuffled<0, 1, 6, 7>(t156, t162);
        const Q t264 = shuffled<1, 0, 3, 2>(t263);
        const Q t265 = Q(-c[40], c[40], -c[41], c[41]) * t264;
        const Q t266 = shuffled<0, 1, 6, 7>(t162, t156);
        const Q t267 = shuffled<1, 0, 3, 2>(t266);
        const Q t268 = Q(c[42], -c[42], c[43], -c[43]) * t267;
        const Q t269 = t265 + t268;
        const Q t270 = flipped<0, 1, 0, 0>(t269);
        // complex block of 2
        const Q t271 = t262 - t270;
        const Q t272 = t270 + t262;
        const Q t273 = shuffled<0, 1, 6, 7>(t257, t267);
        // complex block of 37
        const Q t274 = Q(c[38], -c[38], c[41], c[41]) * t273;
        const Q t275 = shuffled<0, 1, 6, 7>(t260, t264);
        const Q t276 = Q(-c[36], c[36], c[43], c[43]) * t275;
        const Q t277 = t274 + t276;
        const Q t278 = shuffled<0, 1, 6, 7>(t264, t260);
        const Q t279 = Q(c[42], c[42], c[37], c[37]) * t278;
        const Q t280 = shuffled<0, 1, 6, 7>(t267, t257);
        const Q t281 = Q(c[40], c[40], c[39], c[39]) * t280;
        const Q t282 = t279 + t281;
        const Q t283 = flipped<1, 0, 1, 0>(t282);
        const Q t284 = flipped<0, 0, 0, 1>(t277);
        // complex block of 2
        const Q t285 = t283 + t284;
        const Q t286 = flipped<0, 1, 0, 1>(t284);
        const Q t287 = t286 + t282;
        const Q t288 = flipped<1, 0, 0, 0>(t253);
        // complex block of 2
        const Q t289 = t288 + t271;
        const Q t290 = t244 + t285;
        const Q t291 = shuffled<0, 1, 6, 7>(t271, t288);
        const Q t292 = shuffled<0, 1, 6, 7>(t288, t271);
        const Q t293 = t291 - t292;
        const Q t294 = t244 - t285;
        const Q t295 = flipped<1, 0, 0, 1>(t287);
        // complex block of 2
        const Q t296 = t255 + t295;
        const Q t297 = flipped<0, 1, 0, 0>(t272);
        const Q t298 = t245 + t297;
        const Q t299 = t255 - t295;
        const Q t300 = t245 - t297;
        const Q t301 = shuffled<2, 3, 6, 7>(t289, t296);
        const Q t302 = shuffled<2, 3, 6, 7>(t227, t232);
        // complex block of 3
        const Q t303 = t301 - t302;
        const Q t304 = shuffled<0, 1, 4, 5>(t227, t232);
        const Q t305 = c[0] * t303;
        const Q t306 = t304 - t305;
        const Q t307 = shuffled<2, 3, 6, 7>(t290, t298);
        const Q t308 = shuffled<2, 3, 6, 7>(t228, t233);
        const Q t309 = t307 + t308;
        const Q t310 = shuffled<0, 1, 4, 5>(t228, t233);
        const Q t311 = c[0] * t309;
        const Q t312 = t310 - t311;
        const Q t313 = t301 + t302;
        const Q t314 = t307 - t308;
        const Q t315 = shuffled<2, 3, 6, 7>(t293, t299);
        const Q t316 = shuffled<2, 3, 6, 7>(t229, t234);
        // complex block of 3
        const Q t317 = t315 - t316;
        const Q t318 = shuffled<0, 1, 4, 5>(t229, t234);
        const Q t319 = c[0] * t317;
        const Q t320 = t318 - t319;
        const Q t321 = shuffled<2, 3, 6, 7>(t294, t300);
        const Q t322 = shuffled<2, 3, 6, 7>(t230, t235);
        const Q t323 = t321 + t322;
        const Q t324 = shuffled<0, 1, 4, 5>(t230, t235);
        const Q t325 = c[0] * t323;
        const Q t326 = t324 - t325;
        const Q t327 = t315 + t316;
        const Q t328 = t321 - t322;
        const Q t329 = shuffled<0, 1, 4, 5>(t290, t298);
        // spectrum block of 3
        const Q t330 = t329 + t177;
        // complex block of 3
        const Q t331 = t303 + t304;
        const Q t332 = t309 + t310;
        // spectrum block of 3
        const Q t333 = t332 + t330;
        io.pairs(1, 6, t333);
        const Q t334 = c[0] * t332;
        const Q t335 = t330 - t334;
        const Q t336 = c[1] * t331;
        const Q t337 = t335 - t336;
        io.pairs(10, 23, t337);
        const Q t338 = t335 + t336;
        io.pairs(26, 8, t338);
        // spectrum block of 3
        const Q t339 = c[0] * t329;
        const Q t340 = t177 - t339;
        const Q t341 = shuffled<0, 1, 4, 5>(t289, t296);
        const Q t342 = Q(c[1], -c[1], c[1], c[1]) * t341;
        const Q t343 = t340 - t342;
        const Q t344 = t340 + t342;
        // complex block of 3
        const Q t345 = c[1] * t314;
        const Q t346 = t306 + t345;
        const Q t347 = c[1] * t313;
        const Q t348 = t312 - t347;
        // spectrum block of 9, multiplier 4
        const Q t349 = c[2] * t348;
        const Q t350 = c[3] * t346;
        const Q t351 = t349 + t350;
        // complex block of 3
        const Q t352 = t306 - t345;
        const Q t353 = t312 + t347;
        // spectrum block of 9, multiplier 4
        const Q t354 = c[4] * t353;
        const Q t355 = c[5] * t352;
        const Q t356 = t354 + t355;
        // spectrum block of 3
        const Q t357 = t343 - t351;
        io.pairs(7, 5, t357);
        const Q t358 = c[0] * t351;
        const Q t359 = t358 + t343;
        const Q t360 = c[6] * t348;
        const Q t361 = c[7] * t346;
        const Q t362 = t360 - t361;
        const Q t363 = t359 - t362;
        io.pairs(33, 13, t363);
        const Q t364 = t359 + t362;
        io.pairs(34, 19, t364);
        // spectrum block of 3
        const Q t365 = t356 + t344;
        io.pairs(12, 35, t365);
        const Q t366 = c[0] * t356;
        const Q t367 = t344 - t366;
        const Q t368 = c[8] * t352;
        const Q t369 = c[9] * t353;
        const Q t370 = t368 - t369;
        const Q t371 = t367 - t370;
        io.pairs(9, 17, t371);
        const Q t372 = t367 + t370;
        io.pairs(16, 22, t372);
        const Q t373 = shuffled<0, 1, 4, 5>(t294, t300);
        // spectrum block of 3
        const Q t374 = t373 + t178;
        // complex block of 3
        const Q t375 = t317 + t318;
        const Q t376 = t323 + t324;
        // spectrum block of 3
        const Q t377 = t376 + t374;
        io.pairs(36, 31, t377);
        const Q t378 = c[0] * t376;
        const Q t379 = t374 - t378;
        const Q t380 = c[1] * t375;
        const Q t381 = t379 - t380;
        io.pairs(27, 14, t381);
        const Q t382 = t379 + t380;
        io.pairs(11, 29, t382);
        // spectrum block of 3
        const Q t383 = c[0] * t373;
        const Q t384 = t178 - t383;
        const Q t385 = shuffled<0, 1, 4, 5>(t293, t299);
        const Q t386 = Q(-c[1], c[1], c[1], c[1]) * t385;
        const Q t387 = t384 - t386;
        const Q t388 = t384 + t386;
        // complex block of 3
        const Q t389 = c[1] * t328;
        const Q t390 = t320 + t389;
        const Q t391 = c[1] * t327;
        const Q t392 = t326 - t391;
        // spectrum block of 9, multiplier 4
        const Q t393 = c[2] * t392;
        const Q t394 = c[3] * t390;
        const Q t395 = t393 + t394;
        // complex block of 3
        const Q t396 = t320 - t389;
        const Q t397 = t326 + t391;
        // spectrum block of 9, multiplier 4
        const Q t398 = c[4] * t397;
        const Q t399 = c[5] * t396;
        const Q t400 = t398 + t399;
        // spectrum block of 3
        const Q t401 = t387 - t395;
        io.pairs(30, 32, t401);
        const Q t402 = c[0] * t395;
        const Q t403 = t402 + t387;
        const Q t404 = c[6] * t392;
        const Q t405 = c[7] * t390;
        const Q t406 = t404 - t405;
        const Q t407 = t403 - t406;
        io.pairs(4, 24, t407);
        const Q t408 = t403 + t406;
        io.pairs(3, 18, t408);
        // spectrum block of 3
        const Q t409 = t400 + t388;
        io.pairs(25, 2, t409);
        const Q t410 = c[0] * t400;
        const Q t411 = t388 - t410;
        const Q t412 = c[8] * t396;
        const Q t413 = c[9] * t397;
        const Q t414 = t412 - t413;
        const Q t415 = t411 - t414;
        io.pairs(28, 20, t415);
        const Q t416 = t411 + t414;
        io.pairs(21, 15, t416);
    }
};

}  // namespace zulg
