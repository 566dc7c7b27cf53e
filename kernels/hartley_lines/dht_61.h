// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 61.
// Hartley transform of 61 points, form F; up to four lanes to a register.
// 164 sums, 117 differences, 123 products of registers, which do the 1298 steps of the graph, those with
// `scale` included; 222 shuffles, 29 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<61> {
    static constexpr int steps = 1298;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.9510565162951535,  // c[2]: sin 2 pi 6/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.25591390402746017,  // c[6]: -P[13] of 61
        0.047810579406671994,  // c[7]: -Q[13] of 61
        0.15440539602027134,  // c[8]: Q[17] of 61
        0.11042531820311542,  // c[9]: -P[15] of 61
        0.20961095261841867,  // c[10]: P[17] of 61
        0.23576264945389142,  // c[11]: -Q[15] of 61
        0.04709103298244708,  // c[12]: Q[21] of 61
        0.13608829619444565,  // c[13]: -P[19] of 61
        0.256047285458026,  // c[14]: P[21] of 61
        0.22194087820108896,  // c[15]: -Q[19] of 61
        0.23335104576758062,  // c[16]: -P[25] of 61
        0.09177478132326014,  // c[17]: -P[23] of 61
        0.1154342549547329,  // c[18]: Q[25] of 61
        0.24362915936079071,  // c[19]: -Q[23] of 61
        0.1053660297660444,  // c[20]: -Q[5] of 61
        0.2406977012179139,  // c[21]: -P[7] of 61
        0.2380667501964918,  // c[22]: P[5] of 61
        0.09920884237904212,  // c[23]: Q[7] of 61
        0.09068761161102994,  // c[24]: Q[9] of 61
        0.09855050326766758,  // c[25]: Q[11] of 61
        0.24403592948183833,  // c[26]: P[9] of 61
        0.24096799804842803,  // c[27]: P[11] of 61
        0.1192479770652986,  // c[28]: -P[29] of 61
        0.25817133658934166,  // c[29]: -P[27] of 61
        0.2314253610640195,  // c[30]: Q[29] of 61
        0.0335460689418391,  // c[31]: -Q[27] of 61
        0.15497780918795065,  // c[32]: -Q[1] of 61
        0.10340917490170637,  // c[33]: Q[3] of 61
        0.20918808865965802,  // c[34]: P[1] of 61
        0.23892325195327072,  // c[35]: P[3] of 61
        0.16101883855703142,  // c[36]: Q[2] of 61
        0.035854723233524656,  // c[37]: -P[4] of 61
        0.20457446421174474,  // c[38]: P[2] of 61
        0.2578608473569129,  // c[39]: Q[4] of 61
        0.02612376015167778,  // c[40]: -P[22] of 61
        0.07154712447968609,  // c[41]: Q[16] of 61
        0.25902765669579647,  // c[42]: Q[22] of 61
        0.2503173720628796,  // c[43]: P[16] of 61
        0.20515266792101527,  // c[44]: Q[6] of 61
        0.19643012582250524,  // c[45]: -P[12] of 61
        0.1602815043062281,  // c[46]: P[6] of 61
        0.17085954303793666,  // c[47]: Q[12] of 61
        0.035146745480687275,  // c[48]: Q[14] of 61
        0.25061611613274265,  // c[49]: P[8] of 61
        0.25795829907156226,  // c[50]: -P[14] of 61
        0.07049354660050404,  // c[51]: Q[8] of 61
        0.1988310412655552,  // c[52]: Q[26] of 61
        0.21139251213699267,  // c[53]: P[28] of 61
        0.1680594978185787,  // c[54]: -P[26] of 61
        0.15195717683014903,  // c[55]: -Q[28] of 61
        0.12208153447883048,  // c[56]: P[18] of 61
        0.2514915834033143,  // c[57]: P[24] of 61
        0.22994320324173947,  // c[58]: -Q[18] of 61
        0.0673035010610264,  // c[59]: -Q[24] of 61
        0.10452846326765347,  // c[60]: -sin 2 pi 59/60
        0.9945218953682733,  // c[61]: cos 2 pi 59/60
        0.6691306063588582,  // c[62]: -sin 2 pi 53/60
        0.7431448254773942,  // c[63]: cos 2 pi 53/60
        0.20791169081775934,  // c[64]: cos 2 pi 47/60
        0.9135454576426009,  // c[65]: -sin 2 pi 49/60
        0.9781476007338057,  // c[66]: -sin 2 pi 47/60
        0.4067366430758002,  // c[67]: cos 2 pi 49/60
        0.12042596856560207,  // c[68]: P[10] of 61
        0.016666666666666666,  // c[69]: 1/60
        0.23081456598926853,  // c[70]: Q[10] of 61
        0.005558934851007752,  // c[71]: -P[20] of 61
        0.2602823006297202,  // c[72]: Q[20] of 61
        0.22541108450079606,  // c[73]: -sin 2 pi 2/3 times Q[20] of 61
        0.19989127771018625,  // c[74]: -sin 2 pi 2/3 times Q[10] of 61
        0.004814178798955376,  // c[75]: -sin 2 pi 2/3 times -P[20] of 61
        0.10429194805315764,  // c[76]: -sin 2 pi 2/3 times P[10] of 61
        0.13017082793177756,  // c[77]: beta of 61
        0.4330127018922193,  // c[78]: -sin 2 pi 2/3 times -cos 2 pi 2/3
        0.75,  // c[79]: -sin 2 pi 2/3 times -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x42_35_19_26 = io.in(42, 35, 19, 26);
        const Q x22_59_39_2 = io.in(22, 59, 39, 2);
        // real block of 3, multiplier 2
        const Q t0 = x42_35_19_26 + x22_59_39_2;
        const Q t1 = x42_35_19_26 - x22_59_39_2;
        const Q x58_28_3_33 = io.in(58, 28, 3, 33);
        const Q t2 = t0 + x58_28_3_33;
        const Q t3 = c[4] * t0;
        const Q t4 = x58_28_3_33 - t3;
        const Q x57_17_4_44 = io.in(57, 17, 4, 44);
        const Q x56_6_5_55 = io.in(56, 6, 5, 55);
        // real block of 3, multiplier 2
        const Q t5 = x57_17_4_44 + x56_6_5_55;
        const Q t6 = x57_17_4_44 - x56_6_5_55;
        const Q x9_38_52_23 = io.in(9, 38, 52, 23);
        const Q t7 = t5 + x9_38_52_23;
        const Q t8 = c[4] * t5;
        const Q t9 = x9_38_52_23 - t8;
        const Q x25_31_36_30 = io.in(25, 31, 36, 30);
        const Q x16_54_45_7 = io.in(16, 54, 45, 7);
        // real block of 3, multiplier 2
        const Q t10 = x25_31_36_30 + x16_54_45_7;
        const Q t11 = x25_31_36_30 - x16_54_45_7;
        const Q x20_37_41_24 = io.in(20, 37, 41, 24);
        const Q t12 = t10 + x20_37_41_24;
        const Q t13 = c[4] * t10;
        const Q t14 = x20_37_41_24 - t13;
        const Q x12_10_49_51 = io.in(12, 10, 49, 51);
        const Q x15_43_46_18 = io.in(15, 43, 46, 18);
        // real block of 3, multiplier 2
        const Q t15 = x12_10_49_51 + x15_43_46_18;
        const Q t16 = x12_10_49_51 - x15_43_46_18;
        const Q x34_8_27_53 = io.in(34, 8, 27, 53);
        const Q t17 = t15 + x34_8_27_53;
        const Q t18 = c[4] * t15;
        const Q t19 = x34_8_27_53 - t18;
        const Q x47_29_14_32 = io.in(47, 29, 14, 32);
        const Q x13_21_48_40 = io.in(13, 21, 48, 40);
        // real block of 3, multiplier 2
        const Q t20 = x47_29_14_32 + x13_21_48_40;
        const Q t21 = x47_29_14_32 - x13_21_48_40;
        const Q x1_11_60_50 = io.in(1, 11, 60, 50);
        const Q t22 = t20 + x1_11_60_50;
        // real block of 5, multiplier 2
        const Q t23 = t7 + t17;
        const Q t24 = t2 + t12;
        const Q t25 = t23 + t24;
        const Q t26 = c[0] * t23;
        const Q t27 = t22 - t26;
        const Q t28 = c[1] * t23;
        const Q t29 = c[0] * t24;
        const Q t30 = t28 - t29;
        // real block of 3, multiplier 2
        const Q t31 = c[4] * t20;
        const Q t32 = x1_11_60_50 - t31;
        // complex block of 5, multiplier 2
        const Q t33 = t9 + t19;
        const Q t34 = t4 + t14;
        const Q t35 = t33 + t34;
        const Q t36 = c[1] * t33;
        const Q t37 = c[0] * t34;
        const Q t38 = t36 - t37;
        const Q t39 = c[0] * t33;
        const Q t40 = t32 - t39;
        // real block of 3, multiplier 2
        const Q t41 = c[5] * t6;
        // real block of 3, multiplier 2
        const Q t42 = c[5] * t16;
        // complex block of 5, multiplier 2
        const Q t43 = t41 + t42;
        // real block of 3, multiplier 2
        const Q t44 = c[5] * t1;
        // real block of 3, multiplier 2
        const Q t45 = c[5] * t11;
        // complex block of 5, multiplier 2
        const Q t46 = t44 + t45;
        const Q t47 = t43 + t46;
        const Q t48 = c[1] * t43;
        const Q t49 = c[0] * t46;
        const Q t50 = t48 - t49;
        // real block of 3, multiplier 2
        const Q t51 = c[5] * t21;
        // complex block of 5, multiplier 2
        const Q t52 = c[0] * t43;
        const Q t53 = t51 - t52;
        // real block of 5, multiplier 2
        const Q t54 = t7 - t17;
        const Q t55 = t2 - t12;
        // complex block of 5, multiplier 2
        const Q t56 = t9 - t19;
        const Q t57 = t41 - t42;
        const Q t58 = t44 - t45;
        const Q t59 = c[2] * t57;
        const Q t60 = c[3] * t58;
        const Q t61 = t59 - t60;
        const Q t62 = c[3] * t57;
        const Q t63 = c[2] * t58;
        const Q t64 = t62 + t63;
        const Q t65 = t4 - t14;
        // real block of 5, multiplier 2
        const Q t66 = t25 + t22;
        const P t67 = part<0>(t66);
        const P t68 = part<1>(t66);
        // real block of 2
        const P t69 = t67 + t68;
        const P t70 = t67 - t68;
        // real block of 5, multiplier 2
        const Q t71 = c[1] * t24;
        const Q t72 = t27 + t71;
        const Q t73 = c[3] * t54;
        const Q t74 = c[2] * t55;
        const Q t75 = t73 + t74;
        // complex block of 5, multiplier 2
        const Q t76 = t38 + t32;
        const Q t77 = t76 + t61;
        const Q t78 = t76 - t61;
        const Q t79 = t50 + t51;
        const Q t80 = c[2] * t56;
        const Q t81 = c[3] * t65;
        const Q t82 = t80 - t81;
        const Q t83 = t79 - t82;
        const Q t84 = t79 + t82;
        const Q t85 = c[1] * t34;
        const Q t86 = t40 + t85;
        const Q t87 = t86 + t64;
        const Q t88 = t86 - t64;
        const Q t89 = c[1] * t46;
        const Q t90 = t53 + t89;
        const Q t91 = c[3] * t56;
        const Q t92 = c[2] * t65;
        const Q t93 = t91 + t92;
        const Q t94 = t90 - t93;
        const Q t95 = t90 + t93;
        const Q t96 = shuffled<0, 4, 2, 6>(t77, t83);
        const Q t97 = shuffled<0, 4, 2, 6>(t88, t95);
        const Q t98 = shuffled<0, 1, 4, 5>(t96, t97);
        const Q t99 = shuffled<2, 3, 6, 7>(t96, t97);
        // complex block of 2
        const Q t100 = t98 + t99;
        const Q t101 = flipped<0, 1, 0, 0>(t98);
        const Q t102 = flipped<0, 1, 0, 0>(t99);
        const Q t103 = t101 - t102;
        const Q t104 = shuffled<1, 5, 3, 7>(t77, t83);
        const Q t105 = shuffled<1, 5, 3, 7>(t88, t95);
        const Q t106 = shuffled<0, 1, 4, 5>(t104, t105);
        const Q t107 = shuffled<2, 3, 6, 7>(t104, t105);
        // complex block of 2
        const Q t108 = t106 + t107;
        const Q t109 = flipped<0, 1, 0, 0>(t106);
        const Q t110 = flipped<0, 1, 0, 0>(t107);
        const Q t111 = t109 - t110;
        const Q t112 = shuffled<0, 4, 2, 6>(t72, t75);
        const Q t113 = shuffled<0, 4, 2, 6>(t78, t84);
        const Q t114 = shuffled<0, 1, 4, 5>(t112, t113);
        const Q t115 = shuffled<2, 3, 6, 7>(t112, t113);
        // complex block of 2
        const Q t116 = t114 + t115;
        const Q t117 = shuffled<0, 5, 2, 7>(t114, t115);
        const Q t118 = shuffled<0, 5, 2, 7>(t115, t114);
        const Q t119 = t117 - t118;
        const Q t120 = shuffled<1, 5, 3, 7>(t72, t75);
        const Q t121 = shuffled<1, 5, 3, 7>(t78, t84);
        const Q t122 = shuffled<0, 1, 4, 5>(t120, t121);
        const Q t123 = shuffled<2, 3, 6, 7>(t120, t121);
        // complex block of 2
        const Q t124 = t122 + t123;
        const Q t125 = shuffled<0, 5, 2, 7>(t122, t123);
        const Q t126 = shuffled<0, 5, 2, 7>(t123, t122);
        const Q t127 = t125 - t126;
        const Q t128 = shuffled<0, 4, 2, 6>(t87, t94);
        const Q t129 = shuffled<1, 5, 3, 7>(t87, t94);
        const Q t130 = shuffled<2, 3, 4, 5>(t128, t129);
        const Q t131 = shuffled<0, 1, 6, 7>(t128, t129);
        // complex block of 2
        const Q t132 = t130 + t131;
        const Q t133 = flipped<0, 1, 1, 0>(t131);
        const Q t134 = flipped<1, 0, 0, 1>(t130);
        const Q t135 = t133 + t134;
        // real block of 5, multiplier 2
        const Q t136 = t30 + t22;
        const Q t137 = c[2] * t54;
        const Q t138 = c[3] * t55;
        const Q t139 = t137 - t138;
        // complex block of 5, multiplier 2
        const Q t140 = t35 + t32;
        const Q t141 = t47 + t51;
        const Q t142 = shuffled<0, 4, 2, 6>(t140, t141);
        const Q t143 = shuffled<0, 4, 2, 6>(t136, t139);
        const Q t144 = shuffled<0, 1, 4, 5>(t142, t143);
        const Q t145 = shuffled<2, 3, 6, 7>(t142, t143);
        // complex block of 2
        const Q t146 = t144 - t145;
        const Q t147 = shuffled<1, 5, 3, 7>(t140, t141);
        const Q t148 = shuffled<1, 5, 3, 7>(t136, t139);
        const Q t149 = shuffled<0, 1, 4, 5>(t147, t148);
        const Q t150 = shuffled<2, 3, 6, 7>(t147, t148);
        // complex block of 2
        const Q t151 = t149 - t150;
        // complex block of 2
        const Q t152 = t144 + t145;
        // complex block of 2
        const Q t153 = t149 + t150;
        const Q t154 = shuffled<1, 0, 3, 2>(t151);
        const Q t155 = flipped<1, 0, 1, 0>(t154);
        // complex block of 2
        const Q t156 = t146 + t155;
        const Q t157 = t146 - t155;
        const V t158 = part<0>(t69);
        const V t159 = part<1>(t69);
        // real block of 2
        const V t160 = t158 + t159;
        // complex block of 2
        const Q t161 = t152 - t153;
        // real block of 2
        const V t162 = t158 - t159;
        // complex block of 2
        const Q t163 = t100 + t108;
        const Q t164 = shuffled<0, 5, 2, 7>(t116, t124);
        const Q t165 = shuffled<0, 5, 2, 7>(t124, t116);
        // complex block of 2
        const Q t166 = t164 - t165;
        const Q t167 = shuffled<2, 3, 4, 5>(t132, t135);
        const Q t168 = flipped<1, 0, 0, 0>(t167);
        const Q t169 = shuffled<1, 0, 3, 2>(t135);
        const Q t170 = shuffled<0, 1, 6, 7>(t132, t169);
        const Q t171 = flipped<0, 1, 0, 1>(t170);
        // complex block of 2
        const Q t172 = t168 + t171;
        const P t173 = part<1>(t172);
        // real block of 61
        const P t174 = P(-c[6], c[6]) * t173;
        const P t175 = shuffled<1, 0>(t173);
        const P t176 = c[7] * t175;
        const P t177 = t174 + t176;
        const Q t178 = flipped<0, 1, 0, 0>(t100);
        const Q t179 = flipped<0, 1, 0, 0>(t108);
        // complex block of 2
        const Q t180 = t178 - t179;
        // complex block of 2
        const Q t181 = t116 + t124;
        const Q t182 = flipped<0, 1, 1, 1>(t171);
        // complex block of 2
        const Q t183 = t167 + t182;
        const P t184 = part<1>(t183);
        const P t185 = shuffled<1, 0>(t184);
        const Q t186 = joined(t185, t70);
        // real block of 61
        const Q t187 = Q(c[8], c[8], -c[9], c[9]) * t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t186);
        const Q t189 = Q(c[10], -c[10], c[11], c[11]) * t188;
        const Q t190 = t187 + t189;
        const Q t191 = shuffled<1, 0, 3, 2>(t111);
        const Q t192 = flipped<1, 0, 1, 0>(t191);
        // complex block of 2
        const Q t193 = t103 + t192;
        const Q t194 = shuffled<1, 0, 3, 2>(t156);
        const Q t195 = shuffled<2, 3, 4, 5>(t194, t193);
        // real block of 61
        const Q t196 = Q(c[12], c[12], -c[13], c[13]) * t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t195);
        const Q t198 = Q(c[14], -c[14], c[15], c[15]) * t197;
        const Q t199 = t196 + t198;
        const Q t200 = shuffled<0, 1, 6, 7>(t156, t193);
        const Q t201 = Q(-c[16], c[16], -c[17], c[17]) * t200;
        const Q t202 = shuffled<1, 0, 3, 2>(t200);
        const Q t203 = Q(c[18], c[18], c[19], c[19]) * t202;
        const Q t204 = t201 + t203;
        // complex block of 2
        const Q t205 = t103 - t192;
        const Q t206 = shuffled<1, 0, 3, 2>(t157);
        const Q t207 = shuffled<0, 1, 6, 7>(t206, t205);
        // real block of 61
        const Q t208 = Q(c[20], -c[20], -c[21], c[21]) * t207;
        const Q t209 = shuffled<1, 0, 3, 2>(t207);
        const Q t210 = Q(c[22], c[22], c[23], c[23]) * t209;
        const Q t211 = t208 + t210;
        const Q t212 = shuffled<1, 0, 3, 2>(t205);
        const Q t213 = shuffled<2, 3, 4, 5>(t206, t212);
        const Q t214 = Q(-c[24], c[24], c[25], c[25]) * t213;
        const Q t215 = shuffled<1, 0, 3, 2>(t213);
        const Q t216 = Q(c[26], c[26], c[27], -c[27]) * t215;
        const Q t217 = t214 + t216;
        const Q t218 = shuffled<1, 0, 3, 2>(t127);
        const Q t219 = flipped<1, 0, 1, 0>(t218);
        // complex block of 2
        const Q t220 = t119 + t219;
        const Q t221 = shuffled<2, 3, 0, 1>(t220);
        // real block of 61
        const Q t222 = Q(-c[28], c[28], -c[29], c[29]) * t221;
        const Q t223 = shuffled<1, 0, 3, 2>(t221);
        const Q t224 = Q(c[30], c[30], c[31], c[31]) * t223;
        const Q t225 = t222 + t224;
        // complex block of 2
        const Q t226 = t119 - t219;
        const Q t227 = shuffled<2, 3, 0, 1>(t226);
        const Q t228 = shuffled<1, 0, 3, 2>(t227);
        // real block of 61
        const Q t229 = Q(c[32], -c[32], c[33], c[33]) * t228;
        const Q t230 = Q(c[34], c[34], c[35], -c[35]) * t227;
        const Q t231 = t229 + t230;
        // complex block of 2
        const Q t232 = t152 + t153;
        const V x0 = io.in(0);
        // real block of 61
        const V t233 = x0 + t160;
        io.out(0, t233);
        const Q t234 = shuffled<1, 0, 3, 2>(t172);
        const Q t235 = shuffled<0, 1, 4, 5>(t234, t163);
        const Q t236 = Q(c[36], c[36], -c[37], c[37]) * t235;
        const Q t237 = shuffled<1, 0, 3, 2>(t235);
        const Q t238 = Q(c[38], -c[38], c[39], c[39]) * t237;
        const Q t239 = t236 + t238;
        const Q t240 = shuffled<1, 0, 3, 2>(t181);
        const Q t241 = shuffled<2, 3, 6, 7>(t180, t240);
        const Q t242 = Q(-c[40], c[40], c[41], c[41]) * t241;
        const Q t243 = shuffled<1, 0, 3, 2>(t241);
        const Q t244 = Q(c[42], c[42], c[43], -c[43]) * t243;
        const Q t245 = t242 + t244;
        const Q t246 = flipped<0, 0, 0, 1>(t245);
        // complex block of 3
        const Q t247 = t239 + t246;
        const Q t248 = shuffled<0, 5, 2, 7>(t246, t239);
        const Q t249 = shuffled<0, 5, 2, 7>(t239, t246);
        const Q t250 = t248 - t249;
        const Q t251 = shuffled<1, 0, 3, 2>(t161);
        const Q t252 = shuffled<2, 3, 4, 5>(t251, t181);
        // real block of 61
        const Q t253 = Q(c[44], c[44], -c[45], c[45]) * t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t252);
        const Q t255 = Q(c[46], -c[46], c[47], c[47]) * t254;
        const Q t256 = t253 + t255;
        const Q t257 = shuffled<1, 0, 3, 2>(t166);
        const Q t258 = shuffled<2, 3, 6, 7>(t257, t163);
        const Q t259 = Q(c[48], c[48], c[49], c[49]) * t258;
        const Q t260 = shuffled<1, 0, 3, 2>(t258);
        const Q t261 = Q(-c[50], c[50], -c[51], c[51]) * t260;
        const Q t262 = t259 + t261;
        const Q t263 = shuffled<1, 0, 3, 2>(t180);
        const Q t264 = shuffled<0, 1, 4, 5>(t263, t183);
        const Q t265 = Q(c[52], c[52], c[53], c[53]) * t264;
        const Q t266 = shuffled<1, 0, 3, 2>(t264);
        const Q t267 = Q(-c[54], c[54], -c[55], c[55]) * t266;
        const Q t268 = t265 + t267;
        const Q t269 = flipped<0, 1, 0, 1>(t262);
        // complex block of 3
        const Q t270 = t268 + t269;
        const Q t271 = t268 - t269;
        const Q t272 = shuffled<0, 1, 6, 7>(t166, t232);
        // real block of 61
        const Q t273 = Q(c[56], c[56], c[57], c[57]) * t272;
        const Q t274 = shuffled<1, 0, 3, 2>(t272);
        const Q t275 = Q(-c[58], c[58], c[59], -c[59]) * t274;
        const Q t276 = t273 + t275;
        // complex block of 3
        const Q t277 = t270 + t256;
        const Q t278 = c[4] * t270;
        const Q t279 = t256 - t278;
        const Q t280 = Q(c[5], -c[5], c[5], -c[5]) * t271;
        const Q t281 = shuffled<1, 0, 3, 2>(t280);
        const Q t282 = t279 + t281;
        const Q t283 = t279 - t281;
        // complex block of 3
        const Q t284 = t247 + t276;
        const Q t285 = flipped<0, 1, 0, 0>(t276);
        const Q t286 = Q(c[4], -c[4], c[4], c[4]) * t247;
        const Q t287 = t285 - t286;
        const Q t288 = Q(c[5], -c[5], c[5], c[5]) * t250;
        const Q t289 = shuffled<1, 0, 3, 2>(t288);
        const Q t290 = t287 + t289;
        const Q t291 = t287 - t289;
        const P t292 = part<0>(t161);
        const V t293 = part<0>(t292);
        // real block of 61
        const V t294 = c[68] * t293;
        const P t295 = joined(x0, t294);
        const V t296 = part<1>(t292);
        const P t297 = joined(t160, t296);
        const P t298 = P(-c[69], c[70]) * t297;
        const P t299 = t295 + t298;
        const P t300 = part<0>(t232);
        const V t301 = part<0>(t300);
        const V t302 = c[71] * t301;
        const V t303 = part<1>(t300);
        const V t304 = c[72] * t303;
        const V t305 = t302 + t304;
        const P t306 = shuffled<0, 2>(t300, t292);
        // spectrum block of 3
        const P t307 = P(c[73], c[74]) * t306;
        const P t308 = shuffled<1, 3>(t300, t297);
        const P t309 = P(c[75], c[76]) * t308;
        const P t310 = t307 - t309;
        // real block of 61
        const V t311 = -c[77] * t162;
        const P t312 = joined(t305, t311);
        // spectrum block of 3
        const P t313 = t299 - t312;
        const P t314 = shuffled<0, 3>(t299, t312);
        const P t315 = flipped<0, 1>(t314);
        const P t316 = shuffled<0, 3>(t312, t299);
        const P t317 = P(c[4], -c[4]) * t316;
        const P t318 = t315 + t317;
        const P t319 = flipped<1, 0>(t310);
        const P t320 = t318 + t319;
        const P t321 = t318 - t319;
        const Q t322 = shuffled<1, 4, 3, 6>(t231, t225);
        const Q t323 = shuffled<1, 4, 3, 6>(t225, t231);
        const Q t324 = flipped<1, 0, 0, 0>(t323);
        // complex block of 2
        const Q t325 = t322 - t324;
        const Q t326 = t324 + t322;
        const Q t327 = shuffled<2, 3, 0, 1>(t326);
        const Q t328 = shuffled<1, 0, 3, 2>(t327);
        // mirrored skew block of 30
        const Q t329 = Q(c[1], c[1], c[60], c[60]) * t328;
        const Q t330 = Q(c[2], -c[2], c[61], -c[61]) * t327;
        const Q t331 = t329 + t330;
        const Q t332 = shuffled<1, 0, 3, 2>(t211);
        const Q t333 = shuffled<1, 0, 3, 2>(t204);
        const Q t334 = flipped<1, 0, 0, 0>(t333);
        // complex block of 2
        const Q t335 = t332 + t334;
        const Q t336 = shuffled<1, 0, 3, 2>(t217);
        const Q t337 = shuffled<1, 0, 3, 2>(t199);
        const Q t338 = flipped<1, 0, 0, 0>(t337);
        // complex block of 2
        const Q t339 = t336 + t338;
        const P t340 = shuffled<1, 0>(t177);
        const P t341 = part<0>(t190);
        const P t342 = shuffled<1, 0>(t341);
        // complex block of 2
        const P t343 = t340 + t342;
        const P t344 = part<0>(t335);
        const V t345 = part<0>(t344);
        // mirrored skew block of 30
        const V t346 = c[5] * t345;
        const V t347 = part<1>(t344);
        const V t348 = c[4] * t347;
        const V t349 = t346 + t348;
        const Q t350 = shuffled<0, 1, 6, 7>(t339, t335);
        const Q t351 = shuffled<1, 0, 3, 2>(t350);
        const Q t352 = Q(c[0], c[0], c[62], c[62]) * t351;
        const Q t353 = Q(c[3], -c[3], c[63], -c[63]) * t350;
        const Q t354 = t352 + t353;
        const P t355 = part<1>(t339);
        const P t356 = shuffled<1, 0>(t355);
        const Q t357 = joined(t343, t356);
        const Q t358 = Q(-c[64], c[64], c[65], c[65]) * t357;
        const Q t359 = shuffled<1, 0, 3, 2>(t357);
        const Q t360 = Q(c[66], c[66], c[67], -c[67]) * t359;
        const Q t361 = t358 + t360;
        const Q t362 = shuffled<0, 5, 2, 7>(t332, t334);
        const Q t363 = shuffled<0, 5, 2, 7>(t334, t332);
        // complex block of 2
        const Q t364 = t362 - t363;
        const Q t365 = shuffled<0, 5, 2, 7>(t336, t338);
        const Q t366 = shuffled<0, 5, 2, 7>(t338, t336);
        // complex block of 2
        const Q t367 = t365 - t366;
        // complex block of 2
        const P t368 = t342 - t340;
        const P t369 = part<0>(t364);
        const V t370 = part<0>(t369);
        const P t371 = part<1>(t190);
        const V t372 = part<1>(t371);
        // spectrum block of 3
        const V t373 = t370 - t372;
        const V t374 = c[4] * t370;
        const V t375 = t372 + t374;
        const V t376 = part<1>(t369);
        const V t377 = c[5] * t376;
        const V t378 = t377 - t375;
        const V t379 = t375 + t377;
        const V t380 = part<0>(t371);
        // spectrum block of 3
        const V t381 = t349 + t380;
        const V t382 = c[4] * t349;
        const V t383 = t380 - t382;
        const V t384 = c[78] * t345;
        const V t385 = c[79] * t347;
        const V t386 = t384 - t385;
        const Q t387 = shuffled<0, 1, 6, 7>(t325, t331);
        const Q t388 = shuffled<2, 3, 6, 7>(t367, t361);
        // complex block of 3
        const Q t389 = t387 + t388;
        const Q t390 = shuffled<0, 1, 4, 5>(t367, t354);
        const Q t391 = flipped<0, 1, 0, 1>(t390);
        const Q t392 = t389 + t391;
        const Q t393 = Q(-c[4], c[4], -c[4], c[4]) * t389;
        const Q t394 = t390 + t393;
        const Q t395 = t387 - t388;
        const Q t396 = shuffled<2, 3, 6, 7>(t364, t354);
        const P t397 = flipped<0, 1>(t368);
        const P t398 = part<0>(t361);
        const Q t399 = joined(t397, t398);
        // complex block of 3
        const Q t400 = t396 + t399;
        const Q t401 = shuffled<2, 3, 4, 5>(t325, t331);
        const Q t402 = flipped<0, 1, 0, 1>(t401);
        const Q t403 = t400 + t402;
        const Q t404 = Q(-c[4], c[4], -c[4], c[4]) * t400;
        const Q t405 = t401 + t404;
        const Q t406 = t396 - t399;
        const Q t407 = shuffled<0, 4, 2, 6>(t277, t282);
        const Q t408 = shuffled<0, 4, 2, 6>(t284, t290);
        const Q t409 = shuffled<2, 3, 4, 5>(t407, t408);
        const Q t410 = shuffled<2, 3, 4, 5>(t408, t407);
        // spectrum block of 5
        const Q t411 = t409 + t410;
        const P t412 = shuffled<0, 2>(t313, t320);
        const P t413 = shuffled<1, 3>(t313, t320);
        const Q t414 = joined(t412, t413);
        const Q t415 = t411 + t414;
        const Q t416 = c[1] * t409;
        const Q t417 = c[0] * t410;
        const Q t418 = t416 - t417;
        const Q t419 = t418 + t414;
        const Q t420 = shuffled<1, 5, 3, 7>(t277, t282);
        const Q t421 = shuffled<1, 5, 3, 7>(t284, t290);
        const Q t422 = shuffled<2, 3, 4, 5>(t420, t421);
        const Q t423 = c[2] * t422;
        const Q t424 = shuffled<2, 3, 4, 5>(t421, t420);
        const Q t425 = Q(c[3], c[3], -c[3], c[3]) * t424;
        const Q t426 = t423 + t425;
        const Q t427 = flipped<0, 0, 0, 1>(t426);
        const Q t428 = t419 - t427;
        const Q t429 = t419 + t427;
        const Q t430 = c[0] * t409;
        const Q t431 = t414 - t430;
        const Q t432 = c[1] * t410;
        const Q t433 = t431 + t432;
        const Q t434 = Q(-c[2], -c[2], c[2], c[2]) * t424;
        const Q t435 = Q(c[3], c[3], c[3], -c[3]) * t422;
        const Q t436 = t434 + t435;
        const Q t437 = t433 - t436;
        const Q t438 = t433 + t436;
        const P t439 = part<1>(t283);
        const P t440 = part<0>(t291);
        const P t441 = shuffled<0, 2>(t439, t440);
        const P t442 = part<1>(t291);
        const P t443 = part<0>(t283);
        const P t444 = shuffled<0, 2>(t442, t443);
        // spectrum block of 5
        const P t445 = t441 + t444;
        const P t446 = t445 + t321;
        const P t447 = c[1] * t441;
        const P t448 = c[0] * t444;
        const P t449 = t447 - t448;
        const P t450 = t449 + t321;
        const P t451 = shuffled<1, 3>(t439, t440);
        const P t452 = c[2] * t451;
        const P t453 = shuffled<1, 3>(t442, t443);
        const P t454 = c[3] * t453;
        const P t455 = t452 + t454;
        const P t456 = flipped<1, 0>(t455);
        const P t457 = t450 + t456;
        const P t458 = t450 - t456;
        const P t459 = c[0] * t441;
        const P t460 = t321 - t459;
        const P t461 = c[1] * t444;
        const P t462 = t460 + t461;
        const P t463 = P(-c[2], c[2]) * t453;
        const P t464 = P(c[3], -c[3]) * t451;
        const P t465 = t463 + t464;
        const P t466 = t462 - t465;
        const P t467 = t462 + t465;
        // spectrum block of 3
        const V t468 = t383 + t386;
        // complex block of 3
        const Q t469 = c[5] * t395;
        const Q t470 = shuffled<0, 4, 2, 6>(t394, t469);
        const Q t471 = shuffled<1, 5, 3, 7>(t469, t394);
        const Q t472 = t470 - t471;
        // complex block of 3
        const Q t473 = c[5] * t406;
        const Q t474 = shuffled<0, 4, 2, 6>(t405, t473);
        const Q t475 = shuffled<1, 5, 3, 7>(t473, t405);
        const Q t476 = t474 - t475;
        const P t477 = part<0>(t392);
        const P t478 = part<1>(t392);
        const P t479 = shuffled<0, 2>(t477, t478);
        const P t480 = part<0>(t472);
        const P t481 = part<1>(t472);
        const P t482 = shuffled<0, 2>(t480, t481);
        const Q t483 = joined(t479, t482);
        const P t484 = part<0>(t403);
        const P t485 = part<1>(t403);
        const P t486 = shuffled<0, 2>(t484, t485);
        const P t487 = part<0>(t476);
        const P t488 = part<1>(t476);
        const P t489 = shuffled<0, 2>(t487, t488);
        const Q t490 = joined(t486, t489);
        // spectrum block of 5
        const Q t491 = t483 + t490;
        const Q t492 = c[1] * t483;
        const Q t493 = c[0] * t490;
        const Q t494 = t492 - t493;
        const P t495 = shuffled<1, 3>(t477, t478);
        const P t496 = shuffled<1, 3>(t480, t481);
        const Q t497 = joined(t495, t496);
        const Q t498 = c[2] * t497;
        const P t499 = shuffled<1, 3>(t484, t485);
        const P t500 = shuffled<1, 3>(t487, t488);
        const Q t501 = joined(t499, t500);
        const Q t502 = c[3] * t501;
        const Q t503 = t498 + t502;
        const P t504 = joined(t373, t381);
        const P t505 = joined(t378, t468);
        const Q t506 = joined(t504, t505);
        const Q t507 = c[0] * t483;
        const Q t508 = t506 - t507;
        const Q t509 = c[3] * t497;
        const Q t510 = c[2] * t501;
        const Q t511 = t509 - t510;
        // spectrum block of 3
        const V t512 = t383 - t386;
        // complex block of 3
        const Q t513 = t471 + t470;
        // complex block of 3
        const Q t514 = t475 + t474;
        const P t515 = part<0>(t513);
        const P t516 = part<1>(t513);
        const P t517 = shuffled<0, 2>(t515, t516);
        const P t518 = part<0>(t514);
        const P t519 = part<1>(t514);
        const P t520 = shuffled<0, 2>(t518, t519);
        // spectrum block of 5
        const P t521 = t517 + t520;
        const P t522 = c[1] * t517;
        const P t523 = c[0] * t520;
        const P t524 = t522 - t523;
        const P t525 = shuffled<1, 3>(t515, t516);
        const P t526 = c[2] * t525;
        const P t527 = shuffled<1, 3>(t518, t519);
        const P t528 = c[3] * t527;
        const P t529 = t526 + t528;
        const P t530 = joined(t379, t512);
        const P t531 = P(c[0], -c[0]) * t517;
        const P t532 = t530 + t531;
        const P t533 = c[2] * t527;
        const P t534 = c[3] * t525;
        const P t535 = t533 - t534;
        const Q t536 = shuffled<0, 1, 4, 5>(t415, t428);
        const Q t537 = shuffled<2, 3, 6, 7>(t415, t428);
        // spectrum block of 2
        const Q t538 = t536 + t537;
        const Q t539 = t536 - t537;
        const Q t540 = shuffled<0, 1, 4, 5>(t437, t438);
        const Q t541 = shuffled<2, 3, 6, 7>(t437, t438);
        // spectrum block of 2
        const Q t542 = t540 + t541;
        const Q t543 = t540 - t541;
        const P t544 = part<0>(t429);
        const P t545 = part<1>(t429);
        // spectrum block of 2
        const P t546 = t544 + t545;
        const P t547 = t544 - t545;
        const P t548 = shuffled<0, 2>(t446, t457);
        const P t549 = shuffled<0, 2>(t466, t467);
        const Q t550 = joined(t548, t549);
        const P t551 = shuffled<1, 3>(t446, t457);
        const P t552 = shuffled<1, 3>(t466, t467);
        const Q t553 = joined(t551, t552);
        // spectrum block of 2
        const Q t554 = t550 + t553;
        const Q t555 = t550 - t553;
        const V t556 = part<0>(t458);
        const V t557 = part<1>(t458);
        // spectrum block of 2
        const V t558 = t556 + t557;
        const V t559 = t556 - t557;
        // spectrum block of 5
        const Q t560 = t491 + t506;
        const Q t561 = t494 + t506;
        const Q t562 = t561 - t503;
        const Q t563 = t561 + t503;
        const Q t564 = c[1] * t490;
        const Q t565 = t508 + t564;
        const Q t566 = t565 - t511;
        const Q t567 = t565 + t511;
        const P t568 = flipped<1, 0>(t530);
        // spectrum block of 5
        const P t569 = t521 + t568;
        const P t570 = t524 + t568;
        const P t571 = t570 + t529;
        const P t572 = t570 - t529;
        const P t573 = flipped<1, 0>(t532);
        const P t574 = c[1] * t520;
        const P t575 = t573 + t574;
        const P t576 = t575 - t535;
        const P t577 = t575 + t535;
        const P t578 = part<0>(t538);
        const V t579 = part<0>(t578);
        const P t580 = part<0>(t560);
        const V t581 = part<0>(t580);
        // output stage
        const V t582 = t579 - t581;
        io.out(1, t582);
        const V t583 = t579 + t581;
        io.out(60, t583);
        const V t584 = part<1>(t572);
        const V t585 = t559 + t584;
        io.out(2, t585);
        const V t586 = t559 - t584;
        io.out(59, t586);
        const V t587 = part<0>(t546);
        const P t588 = part<0>(t566);
        const V t589 = part<0>(t588);
        const V t590 = t587 + t589;
        io.out(3, t590);
        const V t591 = t587 - t589;
        io.out(58, t591);
        const P t592 = part<1>(t542);
        const V t593 = part<1>(t592);
        const V t594 = part<0>(t572);
        const V t595 = t593 + t594;
        io.out(4, t595);
        const V t596 = t593 - t594;
        io.out(57, t596);
        const P t597 = part<1>(t554);
        const V t598 = part<1>(t597);
        const P t599 = part<1>(t563);
        const V t600 = part<0>(t599);
        const V t601 = t598 + t600;
        io.out(5, t601);
        const V t602 = t598 - t600;
        io.out(56, t602);
        const P t603 = part<1>(t555);
        const V t604 = part<1>(t603);
        const V t605 = part<1>(t571);
        const V t606 = t604 - t605;
        io.out(6, t606);
        const V t607 = t604 + t605;
        io.out(55, t607);
        const P t608 = part<0>(t555);
        const V t609 = part<1>(t608);
        const V t610 = part<1>(t569);
        const V t611 = t609 + t610;
        io.out(7, t611);
        const V t612 = t609 - t610;
        io.out(54, t612);
        const P t613 = part<0>(t543);
        const V t614 = part<0>(t613);
        const P t615 = part<1>(t567);
        const V t616 = part<1>(t615);
        const V t617 = t614 - t616;
        io.out(8, t617);
        const V t618 = t614 + t616;
        io.out(53, t618);
        const V t619 = part<0>(t592);
        const P t620 = part<0>(t563);
        const V t621 = part<0>(t620);
        const V t622 = t619 - t621;
        io.out(9, t622);
        const V t623 = t619 + t621;
        io.out(52, t623);
        const V t624 = part<1>(t613);
        const P t625 = part<0>(t567);
        const V t626 = part<1>(t625);
        const V t627 = t624 - t626;
        io.out(10, t627);
        const V t628 = t624 + t626;
        io.out(51, t628);
        const P t629 = part<0>(t539);
        const V t630 = part<0>(t629);
        const P t631 = part<1>(t566);
        const V t632 = part<1>(t631);
        const V t633 = t630 - t632;
        io.out(11, t633);
        const V t634 = t630 + t632;
        io.out(50, t634);
        const P t635 = part<0>(t542);
        const V t636 = part<1>(t635);
        const V t637 = part<0>(t571);
        const V t638 = t636 - t637;
        io.out(12, t638);
        const V t639 = t636 + t637;
        io.out(49, t639);
        const P t640 = part<0>(t554);
        const V t641 = part<0>(t640);
        const P t642 = part<1>(t560);
        const V t643 = part<0>(t642);
        const V t644 = t641 - t643;
        io.out(13, t644);
        const V t645 = t641 + t643;
        io.out(48, t645);
        const V t646 = part<1>(t578);
        const V t647 = part<0>(t569);
        const V t648 = t646 + t647;
        io.out(14, t648);
        const V t649 = t646 - t647;
        io.out(47, t649);
        const V t650 = part<0>(t597);
        const P t651 = part<1>(t562);
        const V t652 = part<0>(t651);
        const V t653 = t650 - t652;
        io.out(15, t653);
        const V t654 = t650 + t652;
        io.out(46, t654);
        const V t655 = part<1>(t640);
        const V t656 = part<0>(t615);
        const V t657 = t655 - t656;
        io.out(16, t657);
        const V t658 = t655 + t656;
        io.out(45, t658);
        const P t659 = part<1>(t543);
        const V t660 = part<1>(t659);
        const P t661 = part<0>(t562);
        const V t662 = part<1>(t661);
        const V t663 = t660 - t662;
        io.out(17, t663);
        const V t664 = t660 + t662;
        io.out(44, t664);
        const V t665 = part<0>(t603);
        const V t666 = part<1>(t577);
        const V t667 = t665 + t666;
        io.out(18, t667);
        const V t668 = t665 - t666;
        io.out(43, t668);
        const V t669 = part<1>(t546);
        const V t670 = part<0>(t576);
        const V t671 = t669 + t670;
        io.out(19, t671);
        const V t672 = t669 - t670;
        io.out(42, t672);
        const P t673 = part<1>(t538);
        const V t674 = part<0>(t673);
        const V t675 = part<0>(t625);
        const V t676 = t674 - t675;
        io.out(20, t676);
        const V t677 = t674 + t675;
        io.out(41, t677);
        const V t678 = part<0>(t608);
        const V t679 = part<1>(t576);
        const V t680 = t678 - t679;
        io.out(21, t680);
        const V t681 = t678 + t679;
        io.out(40, t681);
        const V t682 = part<0>(t631);
        const V t683 = t558 - t682;
        io.out(22, t683);
        const V t684 = t558 + t682;
        io.out(39, t684);
        const V t685 = part<0>(t659);
        const V t686 = part<1>(t651);
        const V t687 = t685 + t686;
        io.out(23, t687);
        const V t688 = t685 - t686;
        io.out(38, t688);
        const P t689 = part<1>(t539);
        const V t690 = part<0>(t689);
        const V t691 = part<1>(t642);
        const V t692 = t690 + t691;
        io.out(24, t692);
        const V t693 = t690 - t691;
        io.out(37, t693);
        const V t694 = part<1>(t673);
        const V t695 = part<0>(t577);
        const V t696 = t694 - t695;
        io.out(25, t696);
        const V t697 = t694 + t695;
        io.out(36, t697);
        const V t698 = part<1>(t547);
        const V t699 = part<1>(t620);
        const V t700 = t698 + t699;
        io.out(26, t700);
        const V t701 = t698 - t699;
        io.out(35, t701);
        const V t702 = part<0>(t635);
        const V t703 = part<0>(t661);
        const V t704 = t702 + t703;
        io.out(27, t704);
        const V t705 = t702 - t703;
        io.out(34, t705);
        const V t706 = part<0>(t547);
        const V t707 = part<1>(t599);
        const V t708 = t706 - t707;
        io.out(28, t708);
        const V t709 = t706 + t707;
        io.out(33, t709);
        const V t710 = part<1>(t629);
        const V t711 = part<1>(t588);
        const V t712 = t710 - t711;
        io.out(29, t712);
        const V t713 = t710 + t711;
        io.out(32, t713);
        const V t714 = part<1>(t689);
        const V t715 = part<1>(t580);
        const V t716 = t714 + t715;
        io.out(30, t716);
        const V t717 = t714 - t715;
        io.out(31, t717);
    }
};

}  // namespace zulg
