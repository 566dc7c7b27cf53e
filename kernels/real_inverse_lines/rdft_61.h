// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 61.
// Inverse DFT to 61 real points, Rader 4, 3, 5; up to four lanes to a register.
// 134 sums, 85 differences, 137 products of registers, which do the 1301 steps of the graph, those with
// `scale` included; 213 shuffles, 66 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<61> {
    static constexpr int steps = 1301;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 3/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5,  // c[5]: -cos 2 pi 1/3
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
        0.9945218953682733,  // c[7]: cos 2 pi 1/60
        0.10452846326765347,  // c[8]: sin 2 pi 1/60
        0.4067366430758002,  // c[9]: cos 2 pi 11/60
        0.9135454576426009,  // c[10]: sin 2 pi 11/60
        0.7431448254773942,  // c[11]: cos 2 pi 7/60
        0.6691306063588582,  // c[12]: sin 2 pi 7/60
        0.20791169081775934,  // c[13]: cos 2 pi 13/60
        0.9781476007338057,  // c[14]: sin 2 pi 13/60
        0.23576264945389142,  // c[15]: -Q[15] of 61
        0.11042531820311542,  // c[16]: P[15] of 61
        0.23892325195327072,  // c[17]: -P[3] of 61
        0.15497780918795065,  // c[18]: -Q[1] of 61
        0.10340917490170637,  // c[19]: Q[3] of 61
        0.20918808865965802,  // c[20]: -P[1] of 61
        0.0335460689418391,  // c[21]: -Q[27] of 61
        0.1192479770652986,  // c[22]: P[29] of 61
        0.25817133658934166,  // c[23]: P[27] of 61
        0.2314253610640195,  // c[24]: Q[29] of 61
        0.09855050326766758,  // c[25]: Q[11] of 61
        0.09920884237904212,  // c[26]: Q[7] of 61
        0.24096799804842803,  // c[27]: -P[11] of 61
        0.2406977012179139,  // c[28]: P[7] of 61
        0.22194087820108896,  // c[29]: -Q[19] of 61
        0.24362915936079071,  // c[30]: -Q[23] of 61
        0.13608829619444565,  // c[31]: P[19] of 61
        0.09177478132326014,  // c[32]: P[23] of 61
        0.16101883855703142,  // c[33]: Q[2] of 61
        0.25591390402746017,  // c[34]: P[13] of 61
        0.20457446421174474,  // c[35]: P[2] of 61
        0.047810579406671994,  // c[36]: -Q[13] of 61
        0.21139251213699267,  // c[37]: P[28] of 61
        0.15440539602027134,  // c[38]: Q[17] of 61
        0.15195717683014903,  // c[39]: -Q[28] of 61
        0.20961095261841867,  // c[40]: -P[17] of 61
        0.17085954303793666,  // c[41]: Q[12] of 61
        0.035146745480687275,  // c[42]: Q[14] of 61
        0.19643012582250524,  // c[43]: -P[12] of 61
        0.25795829907156226,  // c[44]: -P[14] of 61
        0.22994320324173947,  // c[45]: -Q[18] of 61
        0.07154712447968609,  // c[46]: Q[16] of 61
        0.12208153447883048,  // c[47]: P[18] of 61
        0.2503173720628796,  // c[48]: P[16] of 61
        0.2578608473569129,  // c[49]: Q[4] of 61
        0.25902765669579647,  // c[50]: Q[22] of 61
        0.035854723233524656,  // c[51]: -P[4] of 61
        0.02612376015167778,  // c[52]: -P[22] of 61
        0.1680594978185787,  // c[53]: -P[26] of 61
        0.07049354660050404,  // c[54]: Q[8] of 61
        0.1988310412655552,  // c[55]: Q[26] of 61
        0.25061611613274265,  // c[56]: P[8] of 61
        0.1053660297660444,  // c[57]: -Q[5] of 61
        0.09068761161102994,  // c[58]: Q[9] of 61
        0.2380667501964918,  // c[59]: -P[5] of 61
        0.24403592948183833,  // c[60]: -P[9] of 61
        0.1154342549547329,  // c[61]: Q[25] of 61
        0.04709103298244708,  // c[62]: Q[21] of 61
        0.23335104576758062,  // c[63]: P[25] of 61
        0.256047285458026,  // c[64]: -P[21] of 61
        0.23081456598926853,  // c[65]: Q[10] of 61
        0.20515266792101527,  // c[66]: Q[6] of 61
        0.12042596856560207,  // c[67]: P[10] of 61
        0.1602815043062281,  // c[68]: P[6] of 61
        0.2602823006297202,  // c[69]: Q[20] of 61
        0.2514915834033143,  // c[70]: P[24] of 61
        0.005558934851007752,  // c[71]: -P[20] of 61
        0.0673035010610264,  // c[72]: -Q[24] of 61
        0.016666666666666666,  // c[73]: 1/60
        0.13017082793177756,  // c[74]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const Q x3_26 = io.pairs(3, 26);
        // doubled bins
        const Q t0 = c[0] * x3_26;
        const P t1 = part<0>(t0);
        const P t2 = part<1>(t0);
        const P t3 = shuffled<0, 2>(t1, t2);
        const Q x22_28 = io.pairs(22, 28);
        const Q t4 = c[0] * x22_28;
        const P t5 = part<0>(t4);
        const P t6 = part<1>(t4);
        const P t7 = shuffled<0, 2>(t5, t6);
        const Q t8 = joined(t3, t7);
        const Q x20_30 = io.pairs(20, 30);
        const Q t9 = c[0] * x20_30;
        const P t10 = part<0>(t9);
        const P t11 = part<1>(t9);
        const P t12 = shuffled<0, 2>(t10, t11);
        const Q x16_24 = io.pairs(16, 24);
        const Q t13 = c[0] * x16_24;
        const P t14 = part<0>(t13);
        const P t15 = part<1>(t13);
        const P t16 = shuffled<0, 2>(t14, t15);
        const Q t17 = joined(t12, t16);
        // real block of 5
        const Q t18 = t8 + t17;
        const Q t19 = t8 - t17;
        const Q x27_10 = io.pairs(27, 10);
        // doubled bins
        const Q t20 = c[0] * x27_10;
        const P t21 = part<0>(t20);
        const P t22 = part<1>(t20);
        const P t23 = shuffled<0, 2>(t21, t22);
        const Q x15_8 = io.pairs(15, 8);
        const Q t24 = c[0] * x15_8;
        const P t25 = part<0>(t24);
        const P t26 = part<1>(t24);
        const P t27 = shuffled<0, 2>(t25, t26);
        const Q t28 = joined(t23, t27);
        const Q x9_17 = io.pairs(9, 17);
        const Q t29 = c[0] * x9_17;
        const P t30 = part<0>(t29);
        const P t31 = part<1>(t29);
        const P t32 = shuffled<0, 2>(t30, t31);
        const Q x5_23 = io.pairs(5, 23);
        const Q t33 = c[0] * x5_23;
        const P t34 = part<0>(t33);
        const P t35 = part<1>(t33);
        const P t36 = shuffled<0, 2>(t34, t35);
        const Q t37 = joined(t32, t36);
        // real block of 5
        const Q t38 = t28 + t37;
        const Q t39 = t28 - t37;
        const Q x19_2 = io.pairs(19, 2);
        // doubled bins
        const Q t40 = c[0] * x19_2;
        const P t41 = part<0>(t40);
        const P t42 = part<1>(t40);
        const P t43 = shuffled<0, 2>(t41, t42);
        const Q x25_7 = io.pairs(25, 7);
        const Q t44 = c[0] * x25_7;
        const P t45 = part<0>(t44);
        const P t46 = part<1>(t44);
        const P t47 = shuffled<0, 2>(t45, t46);
        // real block of 5
        const P t48 = t43 + t47;
        const P t49 = t43 - t47;
        const Q x12_18 = io.pairs(12, 18);
        // doubled bins
        const Q t50 = c[0] * x12_18;
        const P t51 = part<0>(t50);
        const P t52 = part<1>(t50);
        const P t53 = shuffled<0, 2>(t51, t52);
        const Q x4_6 = io.pairs(4, 6);
        const Q t54 = c[0] * x4_6;
        const P t55 = part<0>(t54);
        const P t56 = part<1>(t54);
        const P t57 = shuffled<0, 2>(t55, t56);
        // real block of 5
        const P t58 = t53 + t57;
        const P t59 = t53 - t57;
        const Q x13_11 = io.pairs(13, 11);
        // doubled bins
        const Q t60 = c[0] * x13_11;
        const P t61 = part<0>(t60);
        const P t62 = shuffled<1, 3>(t61, t2);
        const P t63 = shuffled<1, 3>(t5, t35);
        const Q t64 = joined(t62, t63);
        const Q x14_21 = io.pairs(14, 21);
        const Q t65 = c[0] * x14_21;
        const P t66 = part<0>(t65);
        const P t67 = shuffled<1, 3>(t66, t6);
        const P t68 = shuffled<1, 3>(t41, t31);
        const Q t69 = joined(t67, t68);
        // real block of 3, multiplier 2
        const Q t70 = t64 - t69;
        const Q t71 = t69 + t64;
        const P t72 = shuffled<1, 3>(t34, t22);
        const P t73 = shuffled<1, 3>(t25, t11);
        const Q t74 = joined(t72, t73);
        const P t75 = shuffled<1, 3>(t55, t26);
        const P t76 = shuffled<1, 3>(t51, t15);
        const Q t77 = joined(t75, t76);
        // real block of 3, multiplier 2
        const Q t78 = t74 + t77;
        const Q t79 = shuffled<0, 1, 6, 7>(t77, t74);
        const Q t80 = shuffled<0, 1, 6, 7>(t74, t77);
        const Q t81 = t79 - t80;
        const Q x1_29 = io.pairs(1, 29);
        // doubled bins
        const Q t82 = c[0] * x1_29;
        const P t83 = part<1>(t82);
        const P t84 = shuffled<1, 3>(t14, t83);
        const P t85 = part<1>(t60);
        const P t86 = shuffled<1, 3>(t45, t85);
        // real block of 3, multiplier 2
        const P t87 = t84 + t86;
        const P t88 = shuffled<0, 3>(t84, t86);
        const P t89 = shuffled<0, 3>(t86, t84);
        const P t90 = t88 - t89;
        // real block of 5
        const Q t91 = t18 + t38;
        const P t92 = part<0>(t82);
        const P t93 = shuffled<0, 2>(t92, t83);
        const P t94 = shuffled<0, 2>(t61, t85);
        const Q t95 = joined(t93, t94);
        const Q t96 = t91 + t95;
        const Q t97 = c[1] * t18;
        const Q t98 = c[2] * t38;
        const Q t99 = t97 - t98;
        const Q t100 = t99 + t95;
        const Q t101 = c[3] * t39;
        const Q t102 = c[4] * t19;
        const Q t103 = t101 - t102;
        const Q t104 = c[2] * t18;
        const Q t105 = t95 - t104;
        const Q t106 = c[1] * t38;
        const Q t107 = t105 + t106;
        const Q t108 = c[3] * t19;
        const Q t109 = c[4] * t39;
        const Q t110 = t108 + t109;
        // real block of 5
        const P t111 = t48 + t58;
        const P t112 = part<1>(t65);
        const P t113 = shuffled<0, 2>(t66, t112);
        const P t114 = t111 + t113;
        const P t115 = c[1] * t48;
        const P t116 = c[2] * t58;
        const P t117 = t115 - t116;
        const P t118 = t117 + t113;
        const P t119 = c[3] * t59;
        const P t120 = c[4] * t49;
        const P t121 = t119 - t120;
        const P t122 = c[2] * t48;
        const P t123 = t113 - t122;
        const P t124 = c[1] * t58;
        const P t125 = t123 + t124;
        const P t126 = c[3] * t49;
        const P t127 = c[4] * t59;
        const P t128 = t126 + t127;
        const P t129 = shuffled<1, 3>(t92, t42);
        const P t130 = shuffled<1, 3>(t1, t56);
        const P t131 = flipped<1, 1>(t130);
        const Q t132 = joined(t129, t131);
        // real block of 3, multiplier 2
        const Q t133 = t70 + t132;
        const P t134 = shuffled<1, 3>(t10, t112);
        // real block of 3, multiplier 2
        const P t135 = t87 + t134;
        const P t136 = part<1>(t133);
        const P t137 = flipped<0, 1>(t135);
        // real block of 5, multiplier 3
        const P t138 = t136 + t137;
        const P t139 = t136 - t137;
        const Q t140 = flipped<0, 0, 1, 1>(t132);
        // real block of 3, multiplier 2
        const Q t141 = Q(-c[5], -c[5], c[5], c[5]) * t70;
        const Q t142 = t140 + t141;
        // real block of 3, multiplier 2
        const P t143 = P(-c[5], c[5]) * t87;
        const P t144 = flipped<0, 1>(t134);
        const P t145 = t143 + t144;
        const P t146 = c[6] * t90;
        const P t147 = shuffled<0, 2>(t145, t146);
        const P t148 = shuffled<1, 3>(t145, t146);
        const Q t149 = joined(t147, t148);
        // real block of 3, multiplier 2
        const Q t150 = Q(c[6], c[6], -c[6], c[6]) * t71;
        const Q t151 = shuffled<0, 4, 2, 6>(t142, t150);
        const Q t152 = flipped<0, 0, 1, 0>(t150);
        const Q t153 = shuffled<1, 5, 3, 7>(t142, t152);
        const Q t154 = shuffled<2, 3, 6, 7>(t151, t153);
        // complex block of 5, multiplier 3
        const Q t155 = t149 - t154;
        const Q t156 = flipped<0, 1, 0, 0>(t154);
        const Q t157 = flipped<0, 1, 0, 0>(t149);
        const Q t158 = t156 + t157;
        const Q t159 = flipped<1, 1, 0, 0>(t78);
        const P t160 = shuffled<1, 3>(t30, t52);
        const P t161 = shuffled<1, 3>(t21, t46);
        const P t162 = flipped<1, 0>(t161);
        const Q t163 = joined(t160, t162);
        // real block of 3, multiplier 2
        const Q t164 = t159 + t163;
        const P t165 = part<1>(t164);
        const P t166 = part<0>(t164);
        // real block of 5, multiplier 3
        const P t167 = t165 + t166;
        const P t168 = t165 - t166;
        const Q t169 = flipped<0, 0, 1, 0>(t163);
        // real block of 3, multiplier 2
        const Q t170 = Q(c[5], c[5], c[5], -c[5]) * t78;
        const Q t171 = t169 + t170;
        const Q t172 = c[6] * t81;
        const Q t173 = shuffled<0, 4, 3, 7>(t171, t172);
        const Q t174 = shuffled<0, 4, 2, 6>(t171, t172);
        const Q t175 = shuffled<1, 5, 3, 7>(t171, t172);
        const Q t176 = shuffled<2, 3, 4, 5>(t174, t175);
        const Q t177 = flipped<1, 0, 0, 0>(t176);
        // complex block of 5, multiplier 3
        const Q t178 = t173 + t177;
        const Q t179 = flipped<0, 1, 0, 0>(t173);
        const Q t180 = flipped<1, 0, 1, 1>(t177);
        const Q t181 = t179 + t180;
        const P t182 = part<1>(t96);
        const P t183 = part<0>(t96);
        const P t184 = shuffled<0, 3>(t182, t183);
        // real block of 3
        const P t185 = t114 + t184;
        const P t186 = shuffled<0, 3>(t183, t182);
        const P t187 = t185 + t186;
        const P t188 = c[5] * t185;
        const P t189 = t186 - t188;
        const P t190 = shuffled<0, 3>(t184, t114);
        const P t191 = shuffled<0, 3>(t114, t184);
        const P t192 = t190 - t191;
        const Q t193 = shuffled<0, 4, 2, 6>(t100, t103);
        const Q t194 = shuffled<0, 4, 2, 6>(t107, t110);
        const Q t195 = shuffled<2, 3, 6, 7>(t193, t194);
        const P t196 = shuffled<0, 2>(t118, t121);
        const P t197 = shuffled<0, 2>(t125, t128);
        const Q t198 = joined(t196, t197);
        // complex block of 3
        const Q t199 = t195 + t198;
        const Q t200 = shuffled<0, 1, 4, 5>(t193, t194);
        const Q t201 = t199 + t200;
        const Q t202 = flipped<0, 0, 0, 1>(t200);
        const Q t203 = Q(c[5], c[5], c[5], -c[5]) * t199;
        const Q t204 = t202 - t203;
        const Q t205 = flipped<0, 0, 0, 1>(t195);
        const Q t206 = flipped<0, 0, 0, 1>(t198);
        const Q t207 = t205 - t206;
        const P t208 = shuffled<1, 3>(t118, t121);
        const P t209 = shuffled<1, 3>(t125, t128);
        const Q t210 = joined(t208, t209);
        const Q t211 = shuffled<1, 5, 3, 7>(t100, t103);
        const Q t212 = shuffled<1, 5, 3, 7>(t107, t110);
        const Q t213 = shuffled<0, 1, 4, 5>(t211, t212);
        // complex block of 3
        const Q t214 = t210 + t213;
        const Q t215 = shuffled<2, 3, 6, 7>(t211, t212);
        const Q t216 = t214 + t215;
        const Q t217 = flipped<0, 0, 0, 1>(t215);
        const Q t218 = Q(c[5], c[5], c[5], -c[5]) * t214;
        const Q t219 = t217 - t218;
        const Q t220 = flipped<0, 0, 0, 1>(t210);
        const Q t221 = flipped<0, 0, 0, 1>(t213);
        const Q t222 = t220 - t221;
        const V t223 = part<0>(t187);
        const V t224 = part<1>(t187);
        // real block of 2
        const V t225 = t223 + t224;
        const V t226 = t223 - t224;
        // real block of 3
        const P t227 = c[6] * t192;
        const P t228 = shuffled<0, 2>(t189, t227);
        const P t229 = shuffled<1, 3>(t189, t227);
        // complex block of 2
        const P t230 = t228 + t229;
        const P t231 = shuffled<0, 3>(t228, t229);
        const P t232 = shuffled<0, 3>(t229, t228);
        const P t233 = t231 - t232;
        // complex block of 3
        const Q t234 = Q(-c[6], c[6], -c[6], c[6]) * t207;
        const Q t235 = shuffled<1, 0, 3, 2>(t234);
        const Q t236 = t204 + t235;
        // complex block of 3
        const Q t237 = Q(-c[6], c[6], -c[6], c[6]) * t222;
        const Q t238 = shuffled<1, 0, 3, 2>(t237);
        const Q t239 = t219 + t238;
        // complex block of 2
        const Q t240 = t236 + t239;
        const Q t241 = t236 - t239;
        // complex block of 2
        const Q t242 = t201 + t216;
        const Q t243 = flipped<0, 0, 0, 1>(t201);
        const Q t244 = flipped<0, 0, 0, 1>(t216);
        const Q t245 = t243 - t244;
        // complex block of 3
        const Q t246 = t204 - t235;
        // complex block of 3
        const Q t247 = t219 - t238;
        // complex block of 2
        const Q t248 = t246 + t247;
        const Q t249 = t246 - t247;
        // real block of 5, multiplier 3
        const P t250 = t138 + t167;
        const P t251 = part<0>(t133);
        const P t252 = t250 + t251;
        const P t253 = c[2] * t138;
        const P t254 = t251 - t253;
        const P t255 = c[1] * t167;
        const P t256 = t254 + t255;
        const P t257 = c[3] * t139;
        const P t258 = c[4] * t168;
        const P t259 = t257 + t258;
        const P t260 = c[1] * t138;
        const P t261 = c[2] * t167;
        const P t262 = t260 - t261;
        const P t263 = t262 + t251;
        const P t264 = c[3] * t168;
        const P t265 = c[4] * t139;
        const P t266 = t264 - t265;
        const Q t267 = shuffled<0, 1, 4, 5>(t151, t153);
        // complex block of 5, multiplier 3
        const Q t268 = c[2] * t155;
        const Q t269 = t267 - t268;
        const Q t270 = c[1] * t178;
        const Q t271 = t269 + t270;
        const Q t272 = c[4] * t181;
        const Q t273 = Q(c[3], c[3], -c[3], -c[3]) * t158;
        const Q t274 = t272 + t273;
        const Q t275 = shuffled<1, 0, 3, 2>(t274);
        const Q t276 = flipped<0, 0, 0, 1>(t275);
        const Q t277 = t271 + t276;
        const Q t278 = t271 - t276;
        const P t279 = part<1>(t278);
        const P t280 = shuffled<1, 3>(t263, t266);
        const Q t281 = joined(t279, t280);
        // skew block of 30
        const Q t282 = Q(c[7], c[7], c[4], c[4]) * t281;
        const Q t283 = shuffled<1, 0, 3, 2>(t281);
        const Q t284 = Q(c[8], -c[8], -c[1], c[1]) * t283;
        const Q t285 = t282 + t284;
        const P t286 = part<0>(t278);
        const P t287 = shuffled<0, 2>(t263, t266);
        const Q t288 = joined(t286, t287);
        // complex block of 2
        const Q t289 = t288 + t285;
        const Q t290 = flipped<0, 0, 0, 1>(t288);
        const Q t291 = flipped<0, 0, 0, 1>(t285);
        const Q t292 = t290 - t291;
        const P t293 = shuffled<1, 3>(t256, t259);
        const P t294 = part<1>(t277);
        const Q t295 = joined(t293, t294);
        // skew block of 30
        const Q t296 = Q(c[3], c[3], c[9], c[9]) * t295;
        const Q t297 = shuffled<1, 0, 3, 2>(t295);
        const Q t298 = Q(-c[2], c[2], -c[10], c[10]) * t297;
        const Q t299 = t296 + t298;
        const P t300 = shuffled<0, 2>(t256, t259);
        const P t301 = part<0>(t277);
        const Q t302 = joined(t300, t301);
        // complex block of 2
        const Q t303 = t302 + t299;
        const Q t304 = shuffled<0, 5, 2, 7>(t302, t299);
        const Q t305 = shuffled<0, 5, 2, 7>(t299, t302);
        const Q t306 = t304 - t305;
        // complex block of 5, multiplier 3
        const Q t307 = t155 + t178;
        const Q t308 = t307 + t267;
        const Q t309 = c[1] * t155;
        const Q t310 = c[2] * t178;
        const Q t311 = t309 - t310;
        const Q t312 = t311 + t267;
        const Q t313 = Q(-c[4], c[4], c[4], c[4]) * t158;
        const Q t314 = Q(c[3], -c[3], c[3], c[3]) * t181;
        const Q t315 = t313 + t314;
        const Q t316 = shuffled<1, 0, 3, 2>(t315);
        const Q t317 = flipped<0, 1, 1, 0>(t316);
        const Q t318 = t312 + t317;
        const Q t319 = t312 - t317;
        const Q t320 = shuffled<2, 3, 6, 7>(t308, t318);
        // skew block of 30
        const Q t321 = Q(c[6], c[6], c[11], c[11]) * t320;
        const Q t322 = shuffled<1, 0, 3, 2>(t320);
        const Q t323 = Q(-c[5], c[5], c[12], -c[12]) * t322;
        const Q t324 = t321 + t323;
        const Q t325 = shuffled<0, 1, 4, 5>(t308, t318);
        // complex block of 2
        const Q t326 = t325 + t324;
        const Q t327 = flipped<0, 1, 0, 0>(t325);
        const Q t328 = flipped<0, 1, 0, 0>(t324);
        const Q t329 = t327 - t328;
        const P t330 = part<1>(t319);
        // skew block of 30
        const P t331 = c[13] * t330;
        const P t332 = shuffled<1, 0>(t330);
        const P t333 = P(c[14], -c[14]) * t332;
        const P t334 = t331 + t333;
        const P t335 = part<0>(t319);
        // complex block of 2
        const P t336 = t335 + t334;
        const P t337 = t335 - t334;
        const V x0r = io.re(0);
        // spectrum block of 61
        const V t338 = c[73] * t225;
        const V t339 = x0r - t338;
        const V t340 = c[74] * t226;
        // spectrum block of 2
        const V t341 = t339 + t340;
        const V t342 = t339 - t340;
        // spectrum block of 61
        const P t343 = P(-c[15], c[15]) * t252;
        const P t344 = shuffled<1, 0>(t252);
        const P t345 = c[16] * t344;
        const P t346 = t343 + t345;
        const P t347 = joined(t341, t342);
        // spectrum block of 2
        const P t348 = t347 + t346;
        const P t349 = t347 - t346;
        const Q t350 = shuffled<1, 0, 3, 2>(t289);
        const Q t351 = shuffled<2, 3, 4, 5>(t350, t289);
        // spectrum block of 61
        const Q t352 = Q(-c[17], c[17], -c[18], c[18]) * t351;
        const Q t353 = shuffled<1, 0, 3, 2>(t351);
        const Q t354 = Q(c[19], c[19], c[20], c[20]) * t353;
        const Q t355 = t352 + t354;
        const Q t356 = shuffled<1, 0, 3, 2>(t292);
        const Q t357 = shuffled<2, 3, 4, 5>(t292, t356);
        const Q t358 = Q(-c[21], c[21], c[22], c[22]) * t357;
        const Q t359 = shuffled<1, 0, 3, 2>(t357);
        const Q t360 = Q(c[23], c[23], c[24], -c[24]) * t359;
        const Q t361 = t358 + t360;
        // complex block of 2
        const Q t362 = t361 + t355;
        const Q t363 = flipped<0, 0, 0, 1>(t361);
        const Q t364 = flipped<0, 0, 0, 1>(t355);
        const Q t365 = t363 - t364;
        const Q t366 = shuffled<2, 3, 6, 7>(t303, t326);
        // spectrum block of 61
        const Q t367 = Q(c[25], c[25], c[26], c[26]) * t366;
        const Q t368 = shuffled<1, 0, 3, 2>(t366);
        const Q t369 = Q(-c[27], c[27], -c[28], c[28]) * t368;
        const Q t370 = t367 + t369;
        const Q t371 = shuffled<2, 3, 6, 7>(t306, t329);
        const Q t372 = Q(-c[29], c[29], -c[30], c[30]) * t371;
        const Q t373 = shuffled<1, 0, 3, 2>(t371);
        const Q t374 = Q(c[31], c[31], c[32], c[32]) * t373;
        const Q t375 = t372 + t374;
        const Q t376 = flipped<0, 0, 0, 1>(t370);
        // complex block of 2
        const Q t377 = t375 + t376;
        const Q t378 = t375 - t376;
        const P t379 = part<0>(t241);
        const Q t380 = joined(t379, t336);
        const Q t381 = shuffled<1, 0, 3, 2>(t380);
        // spectrum block of 61
        const Q t382 = Q(-c[33], c[33], c[34], c[34]) * t381;
        const Q t383 = Q(c[35], c[35], c[36], -c[36]) * t380;
        const Q t384 = t382 + t383;
        const P t385 = part<0>(t240);
        const Q t386 = joined(t385, t337);
        const Q t387 = Q(c[37], c[37], c[38], c[38]) * t386;
        const Q t388 = shuffled<1, 0, 3, 2>(t386);
        const Q t389 = Q(-c[39], c[39], -c[40], c[40]) * t388;
        const Q t390 = t387 + t389;
        const Q t391 = flipped<0, 0, 1, 0>(t384);
        // complex block of 2
        const Q t392 = t390 + t391;
        const Q t393 = flipped<0, 1, 0, 0>(t390);
        const Q t394 = flipped<1, 0, 1, 1>(t391);
        const Q t395 = t393 + t394;
        const Q t396 = shuffled<0, 1, 6, 7>(t242, t241);
        const Q t397 = shuffled<1, 0, 3, 2>(t396);
        // spectrum block of 61
        const Q t398 = Q(c[41], c[41], c[42], c[42]) * t397;
        const Q t399 = Q(c[43], -c[43], c[44], -c[44]) * t396;
        const Q t400 = t398 + t399;
        const Q t401 = shuffled<0, 1, 6, 7>(t245, t240);
        const Q t402 = shuffled<1, 0, 3, 2>(t401);
        const Q t403 = Q(-c[45], c[45], c[46], c[46]) * t402;
        const Q t404 = Q(c[47], c[47], c[48], -c[48]) * t401;
        const Q t405 = t403 + t404;
        const Q t406 = flipped<0, 1, 0, 0>(t400);
        // complex block of 2
        const Q t407 = t405 - t406;
        const Q t408 = flipped<0, 1, 0, 0>(t405);
        const Q t409 = t408 + t400;
        const Q t410 = shuffled<2, 3, 4, 5>(t248, t249);
        const Q t411 = shuffled<1, 0, 3, 2>(t410);
        // spectrum block of 61
        const Q t412 = Q(c[49], c[49], c[50], c[50]) * t411;
        const Q t413 = Q(c[51], -c[51], c[52], -c[52]) * t410;
        const Q t414 = t412 + t413;
        const Q t415 = shuffled<1, 0, 3, 2>(t248);
        const Q t416 = shuffled<2, 3, 4, 5>(t249, t415);
        const Q t417 = Q(-c[53], c[53], c[54], c[54]) * t416;
        const Q t418 = shuffled<1, 0, 3, 2>(t416);
        const Q t419 = Q(c[55], c[55], c[56], -c[56]) * t418;
        const Q t420 = t417 + t419;
        const Q t421 = flipped<0, 1, 0, 0>(t420);
        const Q t422 = flipped<0, 1, 0, 0>(t414);
        // complex block of 2
        const Q t423 = t421 - t422;
        const Q t424 = t420 + t414;
        // complex block of 2
        const Q t425 = t423 + t377;
        const Q t426 = t423 - t377;
        const Q t427 = shuffled<1, 5, 3, 7>(t378, t424);
        const Q t428 = shuffled<0, 4, 2, 6>(t424, t378);
        const Q t429 = flipped<0, 0, 1, 0>(t428);
        // complex block of 2
        const Q t430 = t427 - t429;
        const Q t431 = flipped<0, 0, 1, 0>(t427);
        const Q t432 = t431 + t428;
        const Q t433 = flipped<0, 0, 0, 1>(t362);
        // complex block of 2
        const Q t434 = t407 + t433;
        const Q t435 = t407 - t433;
        const Q t436 = shuffled<1, 5, 3, 7>(t365, t409);
        const Q t437 = shuffled<0, 4, 2, 6>(t409, t365);
        const Q t438 = flipped<0, 0, 1, 0>(t437);
        // complex block of 2
        const Q t439 = t436 - t438;
        const Q t440 = flipped<0, 0, 1, 0>(t436);
        const Q t441 = t440 + t437;
        const Q t442 = shuffled<2, 3, 4, 5>(t392, t395);
        const Q t443 = shuffled<1, 0, 3, 2>(t395);
        const Q t444 = shuffled<0, 1, 6, 7>(t392, t443);
        const Q t445 = flipped<0, 1, 0, 1>(t444);
        // complex block of 2
        const Q t446 = t442 + t445;
        const Q t447 = flipped<1, 0, 0, 0>(t442);
        const Q t448 = flipped<0, 1, 1, 1>(t445);
        const Q t449 = t447 + t448;
        const Q t450 = shuffled<0, 4, 2, 6>(t434, t439);
        const Q t451 = shuffled<0, 4, 2, 6>(t435, t441);
        const Q t452 = shuffled<2, 3, 6, 7>(t450, t451);
        const Q t453 = shuffled<0, 4, 2, 6>(t425, t430);
        const Q t454 = shuffled<0, 4, 2, 6>(t426, t432);
        const Q t455 = shuffled<0, 1, 4, 5>(t453, t454);
        const Q t456 = flipped<0, 0, 0, 1>(t455);
        // complex block of 3, multiplier 2
        const Q t457 = t452 + t456;
        const Q t458 = shuffled<1, 5, 3, 7>(t434, t439);
        const Q t459 = shuffled<1, 5, 3, 7>(t435, t441);
        const Q t460 = shuffled<2, 3, 6, 7>(t458, t459);
        const Q t461 = shuffled<1, 5, 3, 7>(t425, t430);
        const Q t462 = shuffled<1, 5, 3, 7>(t426, t432);
        const Q t463 = shuffled<0, 1, 4, 5>(t461, t462);
        const Q t464 = t460 + t463;
        const P t465 = part<0>(t446);
        const P t466 = part<1>(t446);
        const P t467 = shuffled<0, 2>(t465, t466);
        const P t468 = part<0>(t449);
        const P t469 = part<1>(t449);
        const P t470 = shuffled<0, 2>(t468, t469);
        const Q t471 = joined(t467, t470);
        const Q t472 = shuffled<2, 3, 6, 7>(t453, t454);
        // complex block of 3, multiplier 2
        const Q t473 = t471 + t472;
        const Q t474 = shuffled<2, 3, 6, 7>(t461, t462);
        const P t475 = shuffled<1, 3>(t465, t466);
        const P t476 = shuffled<1, 3>(t468, t469);
        const P t477 = flipped<1, 0>(t476);
        const Q t478 = joined(t475, t477);
        const Q t479 = t474 - t478;
        const Q t480 = flipped<0, 0, 1, 0>(t478);
        const Q t481 = flipped<0, 0, 1, 0>(t474);
        const Q t482 = t480 + t481;
        // complex block of 3, multiplier 2
        const Q t483 = t463 - t460;
        // complex block of 3, multiplier 2
        const Q t484 = t471 - t472;
        // complex block of 3, multiplier 2
        const Q t485 = t452 - t456;
        const Q t486 = shuffled<0, 1, 4, 5>(t326, t303);
        // spectrum block of 61
        const Q t487 = Q(c[57], c[57], c[58], c[58]) * t486;
        const Q t488 = shuffled<1, 0, 3, 2>(t486);
        const Q t489 = Q(c[59], -c[59], -c[60], c[60]) * t488;
        const Q t490 = t487 + t489;
        const Q t491 = shuffled<0, 1, 4, 5>(t329, t306);
        const Q t492 = Q(c[61], -c[61], c[62], c[62]) * t491;
        const Q t493 = shuffled<1, 0, 3, 2>(t491);
        const Q t494 = Q(c[63], c[63], -c[64], c[64]) * t493;
        const Q t495 = t492 + t494;
        const Q t496 = flipped<0, 1, 0, 0>(t495);
        const Q t497 = flipped<1, 0, 0, 1>(t490);
        // complex block of 2
        const Q t498 = t496 + t497;
        const Q t499 = flipped<1, 0, 1, 1>(t497);
        const Q t500 = t495 + t499;
        const P t501 = part<1>(t245);
        const Q t502 = joined(t233, t501);
        const Q t503 = shuffled<1, 0, 3, 2>(t502);
        // spectrum block of 61
        const Q t504 = Q(c[65], c[65], c[66], c[66]) * t503;
        const Q t505 = Q(c[67], -c[67], c[68], -c[68]) * t502;
        const Q t506 = t504 + t505;
        const P t507 = shuffled<1, 0>(t230);
        const P t508 = part<1>(t242);
        const Q t509 = joined(t507, t508);
        const Q t510 = Q(c[69], c[69], c[70], c[70]) * t509;
        const Q t511 = shuffled<1, 0, 3, 2>(t509);
        const Q t512 = Q(-c[71], c[71], -c[72], c[72]) * t511;
        const Q t513 = t510 + t512;
        const Q t514 = flipped<0, 1, 0, 0>(t506);
        // complex block of 2
        const Q t515 = t513 + t514;
        const Q t516 = flipped<1, 1, 1, 0>(t514);
        const Q t517 = flipped<0, 0, 0, 1>(t513);
        const Q t518 = t516 + t517;
        const Q t519 = flipped<0, 0, 0, 1>(t515);
        // complex block of 2
        const Q t520 = t498 + t519;
        const Q t521 = flipped<0, 0, 0, 1>(t498);
        const Q t522 = t515 - t521;
        const Q t523 = shuffled<1, 0, 3, 2>(t500);
        const Q t524 = flipped<0, 0, 1, 0>(t523);
        // complex block of 2
        const Q t525 = t518 - t524;
        const Q t526 = t518 + t524;
        const Q t527 = shuffled<0, 4, 2, 6>(t520, t525);
        const Q t528 = shuffled<0, 4, 2, 6>(t522, t526);
        const Q t529 = shuffled<2, 3, 6, 7>(t527, t528);
        // complex block of 3, multiplier 2
        const Q t530 = c[5] * t457;
        const Q t531 = t529 - t530;
        const Q t532 = c[6] * t464;
        const Q t533 = t531 + t532;
        const Q t534 = t531 - t532;
        const Q t535 = shuffled<0, 1, 4, 5>(t450, t451);
        // complex block of 3, multiplier 2
        const Q t536 = Q(c[5], c[5], c[5], -c[5]) * t473;
        const Q t537 = t535 - t536;
        const Q t538 = Q(c[6], c[6], c[6], -c[6]) * t479;
        const Q t539 = t537 - t538;
        const Q t540 = flipped<0, 0, 0, 1>(t538);
        const Q t541 = flipped<0, 0, 0, 1>(t537);
        const Q t542 = t540 + t541;
        const Q t543 = joined(t348, t349);
        const Q t544 = shuffled<0, 1, 4, 5>(t527, t528);
        // spectrum block of 3, multiplier 2
        const Q t545 = c[5] * t544;
        const Q t546 = t543 - t545;
        const Q t547 = shuffled<1, 5, 3, 7>(t520, t525);
        const Q t548 = shuffled<1, 5, 3, 7>(t522, t526);
        const Q t549 = shuffled<0, 1, 4, 5>(t547, t548);
        const Q t550 = c[6] * t549;
        const Q t551 = t546 - t550;
        const Q t552 = t546 + t550;
        // complex block of 3, multiplier 2
        const Q t553 = Q(c[5], c[5], -c[5], c[5]) * t482;
        const Q t554 = shuffled<0, 1, 4, 5>(t458, t459);
        const Q t555 = t553 + t554;
        const Q t556 = c[6] * t484;
        const Q t557 = t555 + t556;
        const Q t558 = t555 - t556;
        const Q t559 = shuffled<2, 3, 6, 7>(t547, t548);
        // complex block of 3, multiplier 2
        const Q t560 = Q(c[5], c[5], -c[5], c[5]) * t483;
        const Q t561 = t559 - t560;
        const Q t562 = flipped<0, 0, 1, 0>(t561);
        const Q t563 = c[6] * t485;
        const Q t564 = t562 + t563;
        const Q t565 = flipped<0, 0, 1, 0>(t563);
        const Q t566 = t561 - t565;
        // spectrum block of 5, multiplier 2
        const Q t567 = c[1] * t539;
        const P t568 = part<0>(t567);
        const P t569 = part<0>(t533);
        const P t570 = c[2] * t569;
        const P t571 = t568 - t570;
        const P t572 = part<1>(t567);
        const V t573 = part<0>(t572);
        const P t574 = part<1>(t533);
        const V t575 = part<0>(t574);
        // spectrum block of 5, multiplier 2
        const V t576 = c[2] * t575;
        const V t577 = t573 - t576;
        const P t578 = part<1>(t551);
        const V t579 = part<1>(t578);
        const V t580 = part<1>(t572);
        // spectrum block of 5, multiplier 2
        const V t581 = t579 - t580;
        const P t582 = joined(t577, t581);
        const Q t583 = joined(t571, t582);
        const P t584 = part<0>(t551);
        const V t585 = part<0>(t578);
        const V t586 = part<1>(t574);
        const V t587 = -c[2] * t586;
        const P t588 = joined(t585, t587);
        const Q t589 = joined(t584, t588);
        // spectrum block of 5, multiplier 2
        const Q t590 = t583 + t589;
        const Q t591 = c[4] * t557;
        const Q t592 = c[3] * t564;
        const Q t593 = t591 + t592;
        const Q t594 = t590 - t593;
        io.out(25, 30, 36, 31, t594);
        const Q t595 = t590 + t593;
        io.out(42, 26, 19, 35, t595);
        const Q t596 = c[2] * t539;
        const P t597 = part<0>(t596);
        const P t598 = t584 - t597;
        const P t599 = part<1>(t596);
        const V t600 = part<0>(t599);
        // spectrum block of 5, multiplier 2
        const V t601 = t585 - t600;
        const V t602 = part<1>(t599);
        // spectrum block of 5, multiplier 2
        const V t603 = c[1] * t586;
        const V t604 = t602 + t603;
        const P t605 = joined(t601, t604);
        const Q t606 = joined(t598, t605);
        // spectrum block of 5, multiplier 2
        const P t607 = c[1] * t569;
        // spectrum block of 5, multiplier 2
        const V t608 = c[1] * t575;
        const P t609 = joined(t608, t579);
        const Q t610 = joined(t607, t609);
        // spectrum block of 5, multiplier 2
        const Q t611 = t606 + t610;
        const Q t612 = c[3] * t557;
        const Q t613 = c[4] * t564;
        const Q t614 = t612 - t613;
        const Q t615 = t611 - t614;
        io.out(12, 51, 49, 10, t615);
        const Q t616 = t611 + t614;
        io.out(57, 44, 4, 17, t616);
        // spectrum block of 5, multiplier 2
        const Q t617 = t542 + t534;
        const Q t618 = t617 + t552;
        io.out(13, 40, 48, 21, t618);
        const Q t619 = c[1] * t542;
        const Q t620 = c[2] * t534;
        const Q t621 = t619 - t620;
        const Q t622 = t621 + t552;
        const Q t623 = c[4] * t558;
        const Q t624 = Q(c[3], c[3], -c[3], c[3]) * t566;
        const Q t625 = t623 + t624;
        const Q t626 = t622 - t625;
        io.out(16, 7, 45, 54, t626);
        const Q t627 = t622 + t625;
        io.out(22, 2, 39, 59, t627);
        const Q t628 = c[2] * t542;
        const Q t629 = t552 - t628;
        const Q t630 = c[1] * t534;
        const Q t631 = t629 + t630;
        const Q t632 = c[3] * t558;
        const Q t633 = Q(c[4], c[4], -c[4], c[4]) * t566;
        const Q t634 = t632 - t633;
        const Q t635 = t631 - t634;
        io.out(15, 18, 46, 43, t635);
        const Q t636 = t631 + t634;
        io.out(56, 55, 5, 6, t636);
        const Q t637 = flipped<0, 0, 0, 1>(t539);
        // spectrum block of 5, multiplier 2
        const Q t638 = t533 + t637;
        const Q t639 = t638 + t551;
        io.out(47, 32, 14, 29, t639);
        // spectrum block of 3, multiplier 2
        const Q t640 = t544 + t543;
        const Q t641 = flipped<0, 0, 0, 1>(t535);
        // complex block of 3, multiplier 2
        const Q t642 = t473 + t641;
        // complex block of 3, multiplier 2
        const Q t643 = t457 + t529;
        // spectrum block of 5, multiplier 2
        const Q t644 = t642 + t643;
        const Q t645 = c[1] * t642;
        const Q t646 = c[2] * t643;
        const Q t647 = t645 - t646;
        const Q t648 = c[2] * t642;
        const Q t649 = t640 - t648;
        const Q t650 = flipped<0, 0, 1, 0>(t482);
        // complex block of 3, multiplier 2
        const Q t651 = t554 - t650;
        const Q t652 = flipped<0, 0, 1, 0>(t559);
        // complex block of 3, multiplier 2
        const Q t653 = t483 + t652;
        // spectrum block of 5, multiplier 2
        const Q t654 = t644 + t640;
        io.out(1, 50, 60, 11, t654);
        const Q t655 = t647 + t640;
        const Q t656 = c[4] * t651;
        const Q t657 = c[3] * t653;
        const Q t658 = t656 + t657;
        const Q t659 = t655 - t658;
        io.out(20, 24, 41, 37, t659);
        const Q t660 = t655 + t658;
        io.out(58, 33, 3, 28, t660);
        const Q t661 = c[1] * t643;
        const Q t662 = t649 + t661;
        const Q t663 = c[3] * t651;
        const Q t664 = c[4] * t653;
        const Q t665 = t663 - t664;
        const Q t666 = t662 - t665;
        io.out(34, 53, 27, 8, t666);
        const Q t667 = t662 + t665;
        io.out(9, 23, 52, 38, t667);
        // spectrum block of 61
        const V t668 = x0r + t225;
        io.out(0, t668);
    }
};

}  // namespace zulg
