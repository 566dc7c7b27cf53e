// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 61.
// Forward DFT of 61 real points, Rader 3, 5, 4; up to four lanes to a register.
// 135 sums, 86 differences, 123 products of registers, which do the 1238 steps of the graph, those with
// `scale` included; 226 shuffles, 35 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<61> {
    static constexpr int steps = 1238;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 6/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.15497780918795065,  // c[6]: -Q[1] of 61
        0.10340917490170637,  // c[7]: Q[3] of 61
        0.20918808865965802,  // c[8]: P[1] of 61
        0.23892325195327072,  // c[9]: P[3] of 61
        0.1192479770652986,  // c[10]: -P[29] of 61
        0.25817133658934166,  // c[11]: -P[27] of 61
        0.2314253610640195,  // c[12]: Q[29] of 61
        0.0335460689418391,  // c[13]: -Q[27] of 61
        0.1053660297660444,  // c[14]: -Q[5] of 61
        0.2406977012179139,  // c[15]: -P[7] of 61
        0.2380667501964918,  // c[16]: P[5] of 61
        0.09920884237904212,  // c[17]: Q[7] of 61
        0.23335104576758062,  // c[18]: -P[25] of 61
        0.09177478132326014,  // c[19]: -P[23] of 61
        0.1154342549547329,  // c[20]: Q[25] of 61
        0.24362915936079071,  // c[21]: -Q[23] of 61
        0.09068761161102994,  // c[22]: Q[9] of 61
        0.09855050326766758,  // c[23]: Q[11] of 61
        0.24403592948183833,  // c[24]: P[9] of 61
        0.24096799804842803,  // c[25]: P[11] of 61
        0.04709103298244708,  // c[26]: Q[21] of 61
        0.13608829619444565,  // c[27]: -P[19] of 61
        0.256047285458026,  // c[28]: P[21] of 61
        0.22194087820108896,  // c[29]: -Q[19] of 61
        0.25591390402746017,  // c[30]: -P[13] of 61
        0.047810579406671994,  // c[31]: -Q[13] of 61
        0.15440539602027134,  // c[32]: Q[17] of 61
        0.11042531820311542,  // c[33]: -P[15] of 61
        0.20961095261841867,  // c[34]: P[17] of 61
        0.23576264945389142,  // c[35]: -Q[15] of 61
        0.10452846326765347,  // c[36]: -sin 2 pi 59/60
        0.9945218953682733,  // c[37]: cos 2 pi 59/60
        0.6691306063588582,  // c[38]: -sin 2 pi 53/60
        0.7431448254773942,  // c[39]: cos 2 pi 53/60
        0.20791169081775934,  // c[40]: cos 2 pi 47/60
        0.9135454576426009,  // c[41]: -sin 2 pi 49/60
        0.9781476007338057,  // c[42]: -sin 2 pi 47/60
        0.4067366430758002,  // c[43]: cos 2 pi 49/60
        0.16101883855703142,  // c[44]: Q[2] of 61
        0.035854723233524656,  // c[45]: -P[4] of 61
        0.20457446421174474,  // c[46]: P[2] of 61
        0.2578608473569129,  // c[47]: Q[4] of 61
        0.02612376015167778,  // c[48]: -P[22] of 61
        0.07154712447968609,  // c[49]: Q[16] of 61
        0.25902765669579647,  // c[50]: Q[22] of 61
        0.2503173720628796,  // c[51]: P[16] of 61
        0.12208153447883048,  // c[52]: P[18] of 61
        0.2514915834033143,  // c[53]: P[24] of 61
        0.22994320324173947,  // c[54]: -Q[18] of 61
        0.0673035010610264,  // c[55]: -Q[24] of 61
        0.20515266792101527,  // c[56]: Q[6] of 61
        0.19643012582250524,  // c[57]: -P[12] of 61
        0.1602815043062281,  // c[58]: P[6] of 61
        0.17085954303793666,  // c[59]: Q[12] of 61
        0.035146745480687275,  // c[60]: Q[14] of 61
        0.25061611613274265,  // c[61]: P[8] of 61
        0.25795829907156226,  // c[62]: -P[14] of 61
        0.07049354660050404,  // c[63]: Q[8] of 61
        0.1988310412655552,  // c[64]: Q[26] of 61
        0.21139251213699267,  // c[65]: P[28] of 61
        0.1680594978185787,  // c[66]: -P[26] of 61
        0.15195717683014903,  // c[67]: -Q[28] of 61
        0.4330127018922193,  // c[68]: -sin 2 pi 2/3 times -cos 2 pi 2/3
        0.75,  // c[69]: -sin 2 pi 2/3 times -sin 2 pi 2/3
        0.12042596856560207,  // c[70]: P[10] of 61
        0.016666666666666666,  // c[71]: 1/60
        0.23081456598926853,  // c[72]: Q[10] of 61
        0.005558934851007752,  // c[73]: -P[20] of 61
        0.2602823006297202,  // c[74]: Q[20] of 61
        0.22541108450079606,  // c[75]: -sin 2 pi 2/3 times Q[20] of 61
        0.19989127771018625,  // c[76]: -sin 2 pi 2/3 times Q[10] of 61
        0.004814178798955376,  // c[77]: -sin 2 pi 2/3 times -P[20] of 61
        0.10429194805315764,  // c[78]: -sin 2 pi 2/3 times P[10] of 61
        0.13017082793177756,  // c[79]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x42_35_19_26 = io.in(42, 35, 19, 26);
        const Q x22_59_39_2 = io.in(22, 59, 39, 2);
        // real block of 3, multiplier 2
        const Q t0 = x42_35_19_26 + x22_59_39_2;
        const Q t1 = x42_35_19_26 - x22_59_39_2;
        const Q x58_28_3_33 = io.in(58, 28, 3, 33);
        const Q t2 = t0 + x58_28_3_33;
        const Q x57_17_4_44 = io.in(57, 17, 4, 44);
        const Q x56_6_5_55 = io.in(56, 6, 5, 55);
        // real block of 3, multiplier 2
        const Q t3 = x57_17_4_44 + x56_6_5_55;
        const Q t4 = x57_17_4_44 - x56_6_5_55;
        const Q x9_38_52_23 = io.in(9, 38, 52, 23);
        const Q t5 = t3 + x9_38_52_23;
        const Q x25_31_36_30 = io.in(25, 31, 36, 30);
        const Q x16_54_45_7 = io.in(16, 54, 45, 7);
        // real block of 3, multiplier 2
        const Q t6 = x25_31_36_30 + x16_54_45_7;
        const Q t7 = x25_31_36_30 - x16_54_45_7;
        const Q x20_37_41_24 = io.in(20, 37, 41, 24);
        const Q t8 = t6 + x20_37_41_24;
        const Q x12_10_49_51 = io.in(12, 10, 49, 51);
        const Q x15_43_46_18 = io.in(15, 43, 46, 18);
        // real block of 3, multiplier 2
        const Q t9 = x12_10_49_51 + x15_43_46_18;
        const Q t10 = x12_10_49_51 - x15_43_46_18;
        const Q x34_8_27_53 = io.in(34, 8, 27, 53);
        const Q t11 = t9 + x34_8_27_53;
        const Q x47_29_14_32 = io.in(47, 29, 14, 32);
        const Q x13_21_48_40 = io.in(13, 21, 48, 40);
        // real block of 3, multiplier 2
        const Q t12 = x47_29_14_32 + x13_21_48_40;
        const Q t13 = x47_29_14_32 - x13_21_48_40;
        const Q x1_11_60_50 = io.in(1, 11, 60, 50);
        const Q t14 = t12 + x1_11_60_50;
        const Q t15 = c[4] * t12;
        const Q t16 = x1_11_60_50 - t15;
        // real block of 3, multiplier 2
        const Q t17 = c[5] * t4;
        // real block of 3, multiplier 2
        const Q t18 = c[5] * t10;
        // complex block of 5, multiplier 2
        const Q t19 = t17 + t18;
        // real block of 3, multiplier 2
        const Q t20 = c[5] * t1;
        // real block of 3, multiplier 2
        const Q t21 = c[5] * t7;
        // complex block of 5, multiplier 2
        const Q t22 = t20 + t21;
        const Q t23 = t19 + t22;
        const Q t24 = c[0] * t19;
        const Q t25 = c[1] * t22;
        const Q t26 = t24 - t25;
        // real block of 3, multiplier 2
        const Q t27 = c[5] * t13;
        // complex block of 5, multiplier 2
        const Q t28 = c[1] * t19;
        const Q t29 = t27 - t28;
        // real block of 3, multiplier 2
        const Q t30 = c[4] * t3;
        const Q t31 = x9_38_52_23 - t30;
        // real block of 3, multiplier 2
        const Q t32 = c[4] * t9;
        const Q t33 = x34_8_27_53 - t32;
        // complex block of 5, multiplier 2
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        // real block of 3, multiplier 2
        const Q t36 = c[4] * t6;
        const Q t37 = x20_37_41_24 - t36;
        // real block of 3, multiplier 2
        const Q t38 = c[4] * t0;
        const Q t39 = x58_28_3_33 - t38;
        // complex block of 5, multiplier 2
        const Q t40 = t39 + t37;
        const Q t41 = t39 - t37;
        // real block of 5, multiplier 2
        const Q t42 = t5 + t11;
        const Q t43 = t5 - t11;
        const Q t44 = t2 + t8;
        const Q t45 = t2 - t8;
        // complex block of 5, multiplier 2
        const Q t46 = t17 - t18;
        const Q t47 = t20 - t21;
        // real block of 5, multiplier 2
        const Q t48 = t42 + t44;
        const Q t49 = t48 + t14;
        const Q t50 = c[1] * t42;
        const Q t51 = t14 - t50;
        const Q t52 = c[0] * t44;
        const Q t53 = t51 + t52;
        const Q t54 = c[2] * t43;
        const Q t55 = c[3] * t45;
        const Q t56 = t54 + t55;
        const Q t57 = c[0] * t42;
        const Q t58 = c[1] * t44;
        const Q t59 = t57 - t58;
        const Q t60 = t59 + t14;
        const Q t61 = c[3] * t43;
        const Q t62 = c[2] * t45;
        const Q t63 = t61 - t62;
        // complex block of 5, multiplier 2
        const Q t64 = t34 + t40;
        const Q t65 = t64 + t16;
        const Q t66 = t23 + t27;
        const Q t67 = shuffled<0, 4, 2, 6>(t65, t66);
        const Q t68 = shuffled<0, 4, 2, 6>(t60, t63);
        const Q t69 = shuffled<0, 1, 4, 5>(t67, t68);
        const Q t70 = shuffled<2, 3, 6, 7>(t67, t68);
        // complex block of 2
        const Q t71 = t69 - t70;
        const Q t72 = shuffled<1, 5, 3, 7>(t65, t66);
        const Q t73 = shuffled<1, 5, 3, 7>(t60, t63);
        const Q t74 = shuffled<0, 1, 4, 5>(t72, t73);
        const Q t75 = shuffled<2, 3, 6, 7>(t72, t73);
        // complex block of 2
        const Q t76 = t74 - t75;
        // complex block of 5, multiplier 2
        const Q t77 = c[0] * t34;
        const Q t78 = c[1] * t40;
        const Q t79 = t77 - t78;
        const Q t80 = t79 + t16;
        const Q t81 = c[3] * t46;
        const Q t82 = c[2] * t47;
        const Q t83 = t81 - t82;
        const Q t84 = t80 + t83;
        const Q t85 = t80 - t83;
        const Q t86 = t26 + t27;
        const Q t87 = c[3] * t35;
        const Q t88 = c[2] * t41;
        const Q t89 = t87 - t88;
        const Q t90 = t86 - t89;
        const Q t91 = t86 + t89;
        const Q t92 = c[1] * t34;
        const Q t93 = t16 - t92;
        const Q t94 = c[0] * t40;
        const Q t95 = t93 + t94;
        const Q t96 = c[2] * t46;
        const Q t97 = c[3] * t47;
        const Q t98 = t96 + t97;
        const Q t99 = t95 + t98;
        const Q t100 = t95 - t98;
        const Q t101 = c[0] * t22;
        const Q t102 = t29 + t101;
        const Q t103 = c[2] * t35;
        const Q t104 = c[3] * t41;
        const Q t105 = t103 + t104;
        const Q t106 = t102 - t105;
        const Q t107 = t102 + t105;
        const P t108 = part<0>(t49);
        const P t109 = part<1>(t49);
        // real block of 2
        const P t110 = t108 + t109;
        const V t111 = part<0>(t110);
        const V t112 = part<1>(t110);
        // real block of 2
        const V t113 = t111 + t112;
        const V t114 = t111 - t112;
        // real block of 2
        const P t115 = t108 - t109;
        const Q t116 = shuffled<0, 4, 2, 6>(t99, t106);
        const Q t117 = shuffled<1, 5, 3, 7>(t99, t106);
        const Q t118 = shuffled<2, 3, 4, 5>(t116, t117);
        const Q t119 = shuffled<0, 1, 6, 7>(t116, t117);
        // complex block of 2
        const Q t120 = t118 + t119;
        const Q t121 = flipped<0, 1, 1, 0>(t119);
        const Q t122 = flipped<1, 0, 0, 1>(t118);
        const Q t123 = t121 + t122;
        const Q t124 = shuffled<0, 1, 4, 5>(t120, t123);
        const Q t125 = shuffled<1, 0, 3, 2>(t123);
        const Q t126 = shuffled<2, 3, 6, 7>(t120, t125);
        const Q t127 = flipped<0, 0, 1, 0>(t126);
        // complex block of 2
        const Q t128 = t124 + t127;
        const Q t129 = flipped<0, 1, 0, 0>(t124);
        const Q t130 = flipped<1, 0, 1, 1>(t127);
        const Q t131 = t129 + t130;
        const Q t132 = shuffled<0, 4, 2, 6>(t84, t90);
        const Q t133 = shuffled<0, 4, 2, 6>(t100, t107);
        const Q t134 = shuffled<0, 1, 4, 5>(t132, t133);
        const Q t135 = shuffled<2, 3, 6, 7>(t132, t133);
        // complex block of 2
        const Q t136 = t134 + t135;
        const Q t137 = shuffled<1, 5, 3, 7>(t84, t90);
        const Q t138 = shuffled<1, 5, 3, 7>(t100, t107);
        const Q t139 = shuffled<0, 1, 4, 5>(t137, t138);
        const Q t140 = shuffled<2, 3, 6, 7>(t137, t138);
        // complex block of 2
        const Q t141 = t139 + t140;
        // complex block of 2
        const Q t142 = t136 + t141;
        const Q t143 = flipped<0, 1, 0, 0>(t136);
        const Q t144 = flipped<0, 1, 0, 0>(t141);
        const Q t145 = t143 - t144;
        const Q t146 = flipped<0, 1, 0, 0>(t134);
        const Q t147 = flipped<0, 1, 0, 0>(t135);
        // complex block of 2
        const Q t148 = t146 - t147;
        const Q t149 = flipped<0, 1, 0, 0>(t139);
        const Q t150 = flipped<0, 1, 0, 0>(t140);
        // complex block of 2
        const Q t151 = t149 - t150;
        const Q t152 = shuffled<1, 0, 3, 2>(t151);
        const Q t153 = flipped<1, 0, 1, 0>(t152);
        // complex block of 2
        const Q t154 = t148 + t153;
        const Q t155 = t148 - t153;
        const Q t156 = shuffled<1, 0, 3, 2>(t76);
        const Q t157 = flipped<1, 0, 1, 0>(t156);
        // complex block of 2
        const Q t158 = t71 + t157;
        const Q t159 = t71 - t157;
        const Q t160 = shuffled<0, 4, 2, 6>(t53, t56);
        const Q t161 = shuffled<0, 4, 2, 6>(t85, t91);
        const Q t162 = shuffled<0, 1, 4, 5>(t160, t161);
        const Q t163 = shuffled<2, 3, 6, 7>(t160, t161);
        // complex block of 2
        const Q t164 = t162 + t163;
        const Q t165 = shuffled<1, 5, 3, 7>(t53, t56);
        const Q t166 = shuffled<1, 5, 3, 7>(t85, t91);
        const Q t167 = shuffled<0, 1, 4, 5>(t165, t166);
        const Q t168 = shuffled<2, 3, 6, 7>(t165, t166);
        // complex block of 2
        const Q t169 = t167 + t168;
        // complex block of 2
        const Q t170 = t164 + t169;
        const Q t171 = shuffled<0, 5, 2, 7>(t164, t169);
        const Q t172 = shuffled<0, 5, 2, 7>(t169, t164);
        const Q t173 = t171 - t172;
        const Q t174 = shuffled<0, 5, 2, 7>(t162, t163);
        const Q t175 = shuffled<0, 5, 2, 7>(t163, t162);
        // complex block of 2
        const Q t176 = t174 - t175;
        const Q t177 = shuffled<0, 5, 2, 7>(t167, t168);
        const Q t178 = shuffled<0, 5, 2, 7>(t168, t167);
        // complex block of 2
        const Q t179 = t177 - t178;
        const Q t180 = shuffled<1, 0, 3, 2>(t179);
        const Q t181 = flipped<1, 0, 1, 0>(t180);
        // complex block of 2
        const Q t182 = t176 + t181;
        const Q t183 = t176 - t181;
        // complex block of 2
        const Q t184 = t69 + t70;
        // complex block of 2
        const Q t185 = t74 + t75;
        // complex block of 2
        const Q t186 = t184 + t185;
        const Q t187 = t184 - t185;
        const V x0 = io.in(0);
        // real block of 61
        const V t188 = x0 + t113;
        io.re(0, t188);
        const Q t189 = shuffled<2, 3, 0, 1>(t183);
        const Q t190 = shuffled<1, 0, 3, 2>(t189);
        const Q t191 = Q(c[6], -c[6], c[7], c[7]) * t190;
        const Q t192 = Q(c[8], c[8], c[9], -c[9]) * t189;
        const Q t193 = t191 + t192;
        const Q t194 = shuffled<2, 3, 0, 1>(t182);
        const Q t195 = Q(-c[10], c[10], -c[11], c[11]) * t194;
        const Q t196 = shuffled<1, 0, 3, 2>(t194);
        const Q t197 = Q(c[12], c[12], c[13], c[13]) * t196;
        const Q t198 = t195 + t197;
        const Q t199 = shuffled<1, 0, 3, 2>(t193);
        const Q t200 = shuffled<1, 0, 3, 2>(t198);
        const Q t201 = flipped<1, 0, 0, 0>(t200);
        // complex block of 2
        const Q t202 = t199 + t201;
        const Q t203 = shuffled<0, 5, 2, 7>(t199, t201);
        const Q t204 = shuffled<0, 5, 2, 7>(t201, t199);
        const Q t205 = t203 - t204;
        const Q t206 = shuffled<1, 0, 3, 2>(t159);
        const Q t207 = shuffled<0, 1, 6, 7>(t206, t155);
        // real block of 61
        const Q t208 = Q(c[14], -c[14], -c[15], c[15]) * t207;
        const Q t209 = shuffled<1, 0, 3, 2>(t207);
        const Q t210 = Q(c[16], c[16], c[17], c[17]) * t209;
        const Q t211 = t208 + t210;
        const Q t212 = shuffled<0, 1, 6, 7>(t158, t154);
        const Q t213 = Q(-c[18], c[18], -c[19], c[19]) * t212;
        const Q t214 = shuffled<1, 0, 3, 2>(t212);
        const Q t215 = Q(c[20], c[20], c[21], c[21]) * t214;
        const Q t216 = t213 + t215;
        const Q t217 = shuffled<1, 0, 3, 2>(t211);
        const Q t218 = shuffled<1, 0, 3, 2>(t216);
        const Q t219 = flipped<1, 0, 0, 0>(t218);
        // complex block of 2
        const Q t220 = t217 + t219;
        const Q t221 = shuffled<1, 0, 3, 2>(t155);
        const Q t222 = shuffled<2, 3, 4, 5>(t206, t221);
        // real block of 61
        const Q t223 = Q(-c[22], c[22], c[23], c[23]) * t222;
        const Q t224 = shuffled<1, 0, 3, 2>(t222);
        const Q t225 = Q(c[24], c[24], c[25], -c[25]) * t224;
        const Q t226 = t223 + t225;
        const Q t227 = shuffled<1, 0, 3, 2>(t158);
        const Q t228 = shuffled<2, 3, 4, 5>(t227, t154);
        const Q t229 = Q(c[26], c[26], -c[27], c[27]) * t228;
        const Q t230 = shuffled<1, 0, 3, 2>(t228);
        const Q t231 = Q(c[28], -c[28], c[29], c[29]) * t230;
        const Q t232 = t229 + t231;
        const Q t233 = shuffled<1, 0, 3, 2>(t226);
        const Q t234 = shuffled<1, 0, 3, 2>(t232);
        const Q t235 = flipped<1, 0, 0, 0>(t234);
        // complex block of 2
        const Q t236 = t233 + t235;
        const P t237 = part<1>(t131);
        // real block of 61
        const P t238 = P(-c[30], c[30]) * t237;
        const P t239 = shuffled<1, 0>(t237);
        const P t240 = c[31] * t239;
        const P t241 = t238 + t240;
        const P t242 = part<1>(t128);
        const P t243 = shuffled<1, 0>(t242);
        const Q t244 = joined(t243, t115);
        const Q t245 = Q(c[32], c[32], -c[33], c[33]) * t244;
        const Q t246 = shuffled<1, 0, 3, 2>(t244);
        const Q t247 = Q(c[34], -c[34], c[35], c[35]) * t246;
        const Q t248 = t245 + t247;
        const P t249 = shuffled<1, 0>(t241);
        const P t250 = part<0>(t248);
        const P t251 = shuffled<1, 0>(t250);
        // complex block of 2
        const P t252 = t249 + t251;
        const Q t253 = shuffled<0, 5, 2, 7>(t217, t219);
        const Q t254 = shuffled<0, 5, 2, 7>(t219, t217);
        // complex block of 2
        const Q t255 = t253 - t254;
        const Q t256 = shuffled<0, 5, 2, 7>(t233, t235);
        const Q t257 = shuffled<0, 5, 2, 7>(t235, t233);
        // complex block of 2
        const Q t258 = t256 - t257;
        // complex block of 2
        const P t259 = t251 - t249;
        const Q t260 = shuffled<2, 3, 0, 1>(t202);
        const Q t261 = shuffled<1, 0, 3, 2>(t260);
        // mirrored skew block of 30
        const Q t262 = Q(c[0], c[0], c[36], c[36]) * t261;
        const Q t263 = Q(c[3], -c[3], c[37], -c[37]) * t260;
        const Q t264 = t262 + t263;
        const Q t265 = shuffled<0, 1, 6, 7>(t236, t220);
        const Q t266 = shuffled<1, 0, 3, 2>(t265);
        const Q t267 = Q(c[1], c[1], c[38], c[38]) * t266;
        const Q t268 = Q(c[2], -c[2], c[39], -c[39]) * t265;
        const Q t269 = t267 + t268;
        const P t270 = part<1>(t236);
        const P t271 = shuffled<1, 0>(t270);
        const Q t272 = joined(t252, t271);
        const Q t273 = Q(-c[40], c[40], c[41], c[41]) * t272;
        const Q t274 = shuffled<1, 0, 3, 2>(t272);
        const Q t275 = Q(c[42], c[42], c[43], -c[43]) * t274;
        const Q t276 = t273 + t275;
        const Q t277 = shuffled<0, 1, 6, 7>(t205, t264);
        const Q t278 = shuffled<2, 3, 6, 7>(t258, t276);
        // complex block of 3
        const Q t279 = t277 + t278;
        const Q t280 = t277 - t278;
        const Q t281 = shuffled<2, 3, 6, 7>(t255, t269);
        const P t282 = flipped<0, 1>(t259);
        const P t283 = part<0>(t276);
        const Q t284 = joined(t282, t283);
        // complex block of 3
        const Q t285 = t281 + t284;
        const Q t286 = t281 - t284;
        const P t287 = part<0>(t220);
        const V t288 = part<0>(t287);
        // mirrored skew block of 30
        const V t289 = c[5] * t288;
        const V t290 = part<1>(t287);
        const V t291 = c[4] * t290;
        const V t292 = t289 + t291;
        const P t293 = part<0>(t255);
        const V t294 = part<0>(t293);
        const P t295 = part<1>(t248);
        const V t296 = part<1>(t295);
        // spectrum block of 3
        const V t297 = t294 - t296;
        const V t298 = c[4] * t294;
        const V t299 = t296 + t298;
        // spectrum block of 3
        const V t300 = c[68] * t288;
        const V t301 = c[69] * t290;
        const V t302 = t300 - t301;
        const V t303 = part<1>(t293);
        // spectrum block of 3
        const V t304 = c[5] * t303;
        const V t305 = t304 - t299;
        const V t306 = t299 + t304;
        const V t307 = part<0>(t295);
        // spectrum block of 3
        const V t308 = t292 + t307;
        const V t309 = c[4] * t292;
        const V t310 = t307 - t309;
        const V t311 = t310 + t302;
        const V t312 = t310 - t302;
        const Q t313 = shuffled<0, 1, 4, 5>(t258, t269);
        const Q t314 = flipped<0, 1, 0, 1>(t313);
        // complex block of 3
        const Q t315 = t279 + t314;
        const Q t316 = Q(-c[4], c[4], -c[4], c[4]) * t279;
        const Q t317 = t313 + t316;
        const Q t318 = c[5] * t280;
        const Q t319 = shuffled<0, 4, 2, 6>(t317, t318);
        const Q t320 = shuffled<1, 5, 3, 7>(t318, t317);
        const Q t321 = t319 - t320;
        const Q t322 = t320 + t319;
        const Q t323 = shuffled<2, 3, 4, 5>(t205, t264);
        const Q t324 = flipped<0, 1, 0, 1>(t323);
        // complex block of 3
        const Q t325 = t285 + t324;
        const Q t326 = Q(-c[4], c[4], -c[4], c[4]) * t285;
        const Q t327 = t323 + t326;
        const Q t328 = c[5] * t286;
        const Q t329 = shuffled<0, 4, 2, 6>(t327, t328);
        const Q t330 = shuffled<1, 5, 3, 7>(t328, t327);
        const Q t331 = t329 - t330;
        const Q t332 = t330 + t329;
        const P t333 = part<0>(t315);
        const P t334 = part<1>(t315);
        const P t335 = shuffled<0, 2>(t333, t334);
        const P t336 = part<0>(t321);
        const P t337 = part<1>(t321);
        const P t338 = shuffled<0, 2>(t336, t337);
        const Q t339 = joined(t335, t338);
        const P t340 = part<0>(t325);
        const P t341 = part<1>(t325);
        const P t342 = shuffled<0, 2>(t340, t341);
        const P t343 = part<0>(t331);
        const P t344 = part<1>(t331);
        const P t345 = shuffled<0, 2>(t343, t344);
        const Q t346 = joined(t342, t345);
        // spectrum block of 5
        const Q t347 = t339 + t346;
        const P t348 = joined(t297, t308);
        const P t349 = joined(t305, t311);
        const Q t350 = joined(t348, t349);
        const Q t351 = t347 + t350;
        const Q t352 = c[0] * t339;
        const Q t353 = c[1] * t346;
        const Q t354 = t352 - t353;
        const Q t355 = t354 + t350;
        const P t356 = shuffled<1, 3>(t333, t334);
        const P t357 = shuffled<1, 3>(t336, t337);
        const Q t358 = joined(t356, t357);
        const Q t359 = c[3] * t358;
        const P t360 = shuffled<1, 3>(t340, t341);
        const P t361 = shuffled<1, 3>(t343, t344);
        const Q t362 = joined(t360, t361);
        const Q t363 = c[2] * t362;
        const Q t364 = t359 + t363;
        const Q t365 = t355 - t364;
        const Q t366 = t355 + t364;
        const Q t367 = c[1] * t339;
        const Q t368 = t350 - t367;
        const Q t369 = c[0] * t346;
        const Q t370 = t368 + t369;
        const Q t371 = c[2] * t358;
        const Q t372 = c[3] * t362;
        const Q t373 = t371 - t372;
        const Q t374 = t370 - t373;
        const Q t375 = t370 + t373;
        const P t376 = part<0>(t322);
        const P t377 = part<1>(t322);
        const P t378 = shuffled<0, 2>(t376, t377);
        const P t379 = part<0>(t332);
        const P t380 = part<1>(t332);
        const P t381 = shuffled<0, 2>(t379, t380);
        // spectrum block of 5
        const P t382 = t378 + t381;
        const V t383 = flipped<1>(t306);
        const P t384 = joined(t383, t312);
        const P t385 = t382 + t384;
        const P t386 = c[0] * t378;
        const P t387 = c[1] * t381;
        const P t388 = t386 - t387;
        const P t389 = t388 + t384;
        const P t390 = shuffled<1, 3>(t376, t377);
        const P t391 = c[3] * t390;
        const P t392 = shuffled<1, 3>(t379, t380);
        const P t393 = c[2] * t392;
        const P t394 = t391 + t393;
        const P t395 = t389 + t394;
        const P t396 = t389 - t394;
        const P t397 = flipped<1, 0>(t384);
        const P t398 = P(c[1], -c[1]) * t378;
        const P t399 = t397 + t398;
        const P t400 = flipped<1, 0>(t399);
        const P t401 = c[0] * t381;
        const P t402 = t400 + t401;
        const P t403 = c[3] * t392;
        const P t404 = c[2] * t390;
        const P t405 = t403 - t404;
        const P t406 = t402 - t405;
        const P t407 = t402 + t405;
        const Q t408 = shuffled<1, 0, 3, 2>(t131);
        const Q t409 = shuffled<0, 1, 4, 5>(t408, t142);
        // real block of 61
        const Q t410 = Q(c[44], c[44], -c[45], c[45]) * t409;
        const Q t411 = shuffled<1, 0, 3, 2>(t409);
        const Q t412 = Q(c[46], -c[46], c[47], c[47]) * t411;
        const Q t413 = t410 + t412;
        const Q t414 = shuffled<1, 0, 3, 2>(t170);
        const Q t415 = shuffled<2, 3, 6, 7>(t145, t414);
        const Q t416 = Q(-c[48], c[48], c[49], c[49]) * t415;
        const Q t417 = shuffled<1, 0, 3, 2>(t415);
        const Q t418 = Q(c[50], c[50], c[51], -c[51]) * t417;
        const Q t419 = t416 + t418;
        const Q t420 = flipped<0, 0, 0, 1>(t419);
        // complex block of 3
        const Q t421 = t413 + t420;
        const Q t422 = shuffled<0, 5, 2, 7>(t420, t413);
        const Q t423 = shuffled<0, 5, 2, 7>(t413, t420);
        const Q t424 = t422 - t423;
        const Q t425 = shuffled<0, 1, 6, 7>(t173, t186);
        // real block of 61
        const Q t426 = Q(c[52], c[52], c[53], c[53]) * t425;
        const Q t427 = shuffled<1, 0, 3, 2>(t425);
        const Q t428 = Q(-c[54], c[54], c[55], -c[55]) * t427;
        const Q t429 = t426 + t428;
        // complex block of 3
        const Q t430 = t421 + t429;
        const Q t431 = flipped<0, 1, 0, 0>(t429);
        const Q t432 = Q(c[4], -c[4], c[4], c[4]) * t421;
        const Q t433 = t431 - t432;
        const Q t434 = Q(c[5], -c[5], c[5], c[5]) * t424;
        const Q t435 = shuffled<1, 0, 3, 2>(t434);
        const Q t436 = t433 + t435;
        const Q t437 = t433 - t435;
        const P t438 = part<0>(t187);
        const V t439 = part<0>(t438);
        // real block of 61
        const V t440 = c[70] * t439;
        const P t441 = joined(x0, t440);
        const V t442 = part<1>(t438);
        const P t443 = joined(t113, t442);
        const P t444 = P(-c[71], c[72]) * t443;
        const P t445 = t441 + t444;
        const P t446 = part<0>(t186);
        const V t447 = part<0>(t446);
        const V t448 = c[73] * t447;
        const V t449 = part<1>(t446);
        const V t450 = c[74] * t449;
        const V t451 = t448 + t450;
        const P t452 = shuffled<0, 2>(t446, t438);
        // spectrum block of 3
        const P t453 = P(c[75], c[76]) * t452;
        const P t454 = shuffled<1, 3>(t446, t443);
        const P t455 = P(c[77], c[78]) * t454;
        const P t456 = t453 - t455;
        // real block of 61
        const V t457 = -c[79] * t114;
        const P t458 = joined(t451, t457);
        // spectrum block of 3
        const P t459 = t445 - t458;
        const P t460 = shuffled<0, 3>(t445, t458);
        const P t461 = flipped<0, 1>(t460);
        const P t462 = shuffled<0, 3>(t458, t445);
        const P t463 = P(c[4], -c[4]) * t462;
        const P t464 = t461 + t463;
        const P t465 = flipped<1, 0>(t456);
        const P t466 = t464 + t465;
        const P t467 = t464 - t465;
        const Q t468 = shuffled<1, 0, 3, 2>(t187);
        const Q t469 = shuffled<2, 3, 4, 5>(t468, t170);
        // real block of 61
        const Q t470 = Q(c[56], c[56], -c[57], c[57]) * t469;
        const Q t471 = shuffled<1, 0, 3, 2>(t469);
        const Q t472 = Q(c[58], -c[58], c[59], c[59]) * t471;
        const Q t473 = t470 + t472;
        const Q t474 = shuffled<1, 0, 3, 2>(t173);
        const Q t475 = shuffled<2, 3, 6, 7>(t474, t142);
        const Q t476 = Q(c[60], c[60], c[61], c[61]) * t475;
        const Q t477 = shuffled<1, 0, 3, 2>(t475);
        const Q t478 = Q(-c[62], c[62], -c[63], c[63]) * t477;
        const Q t479 = t476 + t478;
        const Q t480 = shuffled<1, 0, 3, 2>(t145);
        const Q t481 = shuffled<0, 1, 4, 5>(t480, t128);
        const Q t482 = Q(c[64], c[64], c[65], c[65]) * t481;
        const Q t483 = shuffled<1, 0, 3, 2>(t481);
        const Q t484 = Q(-c[66], c[66], -c[67], c[67]) * t483;
        const Q t485 = t482 + t484;
        const Q t486 = flipped<0, 1, 0, 1>(t479);
        // complex block of 3
        const Q t487 = t485 + t486;
        const Q t488 = t485 - t486;
        const Q t489 = t487 + t473;
        const Q t490 = c[4] * t487;
        const Q t491 = t473 - t490;
        const Q t492 = Q(c[5], -c[5], c[5], -c[5]) * t488;
        const Q t493 = shuffled<1, 0, 3, 2>(t492);
        const Q t494 = t491 + t493;
        const Q t495 = t491 - t493;
        const Q t496 = shuffled<0, 4, 2, 6>(t489, t494);
        const Q t497 = shuffled<0, 4, 2, 6>(t430, t436);
        const Q t498 = shuffled<2, 3, 4, 5>(t496, t497);
        const Q t499 = shuffled<2, 3, 4, 5>(t497, t496);
        // spectrum block of 5
        const Q t500 = t498 + t499;
        const P t501 = shuffled<0, 2>(t459, t466);
        const P t502 = shuffled<1, 3>(t459, t466);
        const Q t503 = joined(t501, t502);
        const Q t504 = t500 + t503;
        const Q t505 = c[0] * t498;
        const Q t506 = c[1] * t499;
        const Q t507 = t505 - t506;
        const Q t508 = t507 + t503;
        const Q t509 = shuffled<1, 5, 3, 7>(t489, t494);
        const Q t510 = shuffled<1, 5, 3, 7>(t430, t436);
        const Q t511 = shuffled<2, 3, 4, 5>(t509, t510);
        const Q t512 = c[3] * t511;
        const Q t513 = shuffled<2, 3, 4, 5>(t510, t509);
        const Q t514 = Q(c[2], c[2], -c[2], c[2]) * t513;
        const Q t515 = t512 + t514;
        const Q t516 = flipped<1, 0, 0, 0>(t508);
        const Q t517 = flipped<0, 1, 1, 0>(t515);
        const Q t518 = t516 + t517;
        const Q t519 = shuffled<0, 1, 4, 5>(t504, t518);
        const Q t520 = flipped<0, 0, 1, 0>(t519);
        const Q t521 = shuffled<2, 3, 6, 7>(t504, t518);
        // spectrum block of 2
        const Q t522 = t520 + t521;
        const P t523 = part<0>(t522);
        const P t524 = part<0>(t351);
        const P t525 = shuffled<0, 2>(t523, t524);
        io.pair(1, t525);
        const P t526 = shuffled<1, 2>(t523, t385);
        io.pair(14, negated<0, 1>(t526));
        const P t527 = part<1>(t522);
        const P t528 = part<0>(t375);
        const P t529 = shuffled<0, 2>(t527, t528);
        io.pair(20, t529);
        const P t530 = shuffled<1, 2>(t527, t407);
        io.pair(25, t530);
        const Q t531 = flipped<0, 0, 1, 0>(t521);
        const Q t532 = t519 - t531;
        const P t533 = part<0>(t532);
        const P t534 = part<1>(t374);
        const P t535 = shuffled<0, 3>(t533, t534);
        io.pair(11, t535);
        const P t536 = part<1>(t532);
        const P t537 = part<1>(t351);
        const P t538 = shuffled<0, 3>(t536, t537);
        io.pair(24, negated<1, 1>(t538));
        const P t539 = part<0>(t374);
        const P t540 = shuffled<1, 3>(t533, t539);
        io.pair(29, t540);
        const P t541 = shuffled<1, 3>(t536, t524);
        io.pair(30, negated<0, 1>(t541));
        const Q t542 = flipped<0, 1, 1, 1>(t517);
        // spectrum block of 5
        const Q t543 = t508 + t542;
        const P t544 = part<0>(t543);
        const P t545 = part<1>(t543);
        // spectrum block of 2
        const P t546 = t544 + t545;
        const P t547 = shuffled<0, 2>(t546, t539);
        io.pair(3, negated<0, 1>(t547));
        const P t548 = shuffled<1, 2>(t546, t406);
        io.pair(19, negated<0, 1>(t548));
        const P t549 = t544 - t545;
        const P t550 = part<0>(t366);
        const P t551 = shuffled<1, 3>(t549, t550);
        io.pair(26, negated<0, 1>(t551));
        const P t552 = part<1>(t366);
        const P t553 = shuffled<0, 3>(t549, t552);
        io.pair(28, t553);
        // spectrum block of 5
        const Q t554 = c[1] * t498;
        const Q t555 = t503 - t554;
        const Q t556 = c[0] * t499;
        const Q t557 = t555 + t556;
        const Q t558 = Q(-c[3], -c[3], c[3], c[3]) * t513;
        const Q t559 = Q(c[2], c[2], c[2], -c[2]) * t511;
        const Q t560 = t558 + t559;
        const Q t561 = t557 - t560;
        const Q t562 = t557 + t560;
        const Q t563 = shuffled<0, 1, 4, 5>(t561, t562);
        const Q t564 = shuffled<2, 3, 6, 7>(t561, t562);
        // spectrum block of 2
        const Q t565 = t563 + t564;
        const P t566 = part<1>(t565);
        const P t567 = shuffled<1, 2>(t566, t396);
        io.pair(4, negated<0, 1>(t567));
        const P t568 = shuffled<0, 2>(t566, t550);
        io.pair(9, t568);
        const P t569 = part<0>(t565);
        const P t570 = shuffled<1, 2>(t569, t395);
        io.pair(12, t570);
        const P t571 = part<0>(t365);
        const P t572 = shuffled<0, 2>(t569, t571);
        io.pair(27, negated<0, 1>(t572));
        const Q t573 = t563 - t564;
        const P t574 = part<0>(t573);
        const P t575 = part<1>(t375);
        const P t576 = shuffled<0, 3>(t574, t575);
        io.pair(8, t576);
        const P t577 = shuffled<1, 3>(t574, t528);
        io.pair(10, t577);
        const P t578 = part<1>(t573);
        const P t579 = shuffled<1, 3>(t578, t571);
        io.pair(17, t579);
        const P t580 = part<1>(t365);
        const P t581 = shuffled<0, 3>(t578, t580);
        io.pair(23, negated<0, 1>(t581));
        const P t582 = part<1>(t495);
        const P t583 = part<0>(t437);
        const P t584 = shuffled<0, 2>(t582, t583);
        const P t585 = part<1>(t437);
        const P t586 = part<0>(t495);
        const P t587 = shuffled<0, 2>(t585, t586);
        // spectrum block of 5
        const P t588 = t584 + t587;
        const P t589 = t588 + t467;
        const P t590 = c[0] * t584;
        const P t591 = c[1] * t587;
        const P t592 = t590 - t591;
        const P t593 = t592 + t467;
        const P t594 = shuffled<1, 3>(t582, t583);
        const P t595 = c[3] * t594;
        const P t596 = shuffled<1, 3>(t585, t586);
        const P t597 = c[2] * t596;
        const P t598 = t595 + t597;
        const P t599 = c[1] * t584;
        const P t600 = t467 - t599;
        const P t601 = c[0] * t587;
        const P t602 = t600 + t601;
        const P t603 = P(-c[3], c[3]) * t596;
        const P t604 = P(c[2], -c[2]) * t594;
        const P t605 = t603 + t604;
        const P t606 = flipped<1, 0>(t598);
        const P t607 = t593 + t606;
        const P t608 = t602 - t605;
        const P t609 = t602 + t605;
        const P t610 = shuffled<0, 2>(t589, t607);
        const P t611 = shuffled<0, 2>(t608, t609);
        const Q t612 = joined(t610, t611);
        const P t613 = shuffled<1, 3>(t589, t607);
        const P t614 = shuffled<1, 3>(t608, t609);
        const Q t615 = joined(t613, t614);
        // spectrum block of 2
        const Q t616 = t612 + t615;
        const P t617 = part<1>(t616);
        const P t618 = shuffled<1, 2>(t617, t552);
        io.pair(5, negated<0, 1>(t618));
        const P t619 = part<0>(t616);
        const P t620 = shuffled<0, 2>(t619, t537);
        io.pair(13, t620);
        const P t621 = shuffled<0, 2>(t617, t580);
        io.pair(15, t621);
        const P t622 = shuffled<1, 2>(t619, t575);
        io.pair(16, t622);
        const Q t623 = t612 - t615;
        const P t624 = part<1>(t623);
        const P t625 = shuffled<1, 3>(t624, t395);
        io.pair(6, t625);
        const P t626 = part<0>(t623);
        const P t627 = shuffled<1, 3>(t626, t385);
        io.pair(7, negated<0, 1>(t627));
        const P t628 = shuffled<0, 3>(t624, t407);
        io.pair(18, negated<0, 1>(t628));
        const P t629 = shuffled<0, 3>(t626, t406);
        io.pair(21, t629);
        // spectrum block of 5
        const P t630 = t593 - t606;
        const V t631 = part<0>(t630);
        const V t632 = part<1>(t630);
        // spectrum block of 2
        const V t633 = t631 + t632;
        const V t634 = part<0>(t534);
        const P t635 = joined(t633, t634);
        io.pair(22, t635);
        const V t636 = t631 - t632;
        const V t637 = part<1>(t396);
        const V t638 = flipped<1>(t637);
        const P t639 = joined(t636, t638);
        io.pair(2, t639);
    }
};

}  // namespace zulg
