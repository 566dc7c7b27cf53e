// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 59.
// Complex DFT of 59 points, Rader block; two lines of a stage to a register.
// 411 sums, 353 differences, 484 products of registers, which do the 4822 steps of the graph, those with
// `scale` included; 248 shuffles, 69 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<59> {
    static constexpr int steps = 4822;  // with `scale`
    static constexpr double inverseRoot = 0.13018891098082389;  // 1/sqrt(59), for `scale`
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
        0.3298297662985413,  // c[18]: P[2] of 29
        0.19791793485411824,  // c[19]: Q[2] of 29
        0.08413784916151361,  // c[20]: P[12] of 29
        0.3753398540149231,  // c[21]: -Q[12] of 29
        0.384463442096457,  // c[22]: P[3] of 29
        0.012126226322052493,  // c[23]: Q[3] of 29
        0.019970959548377194,  // c[24]: P[11] of 29
        0.38413584113980626,  // c[25]: Q[11] of 29
        0.36147698792300353,  // c[26]: -Q[5] of 29
        0.13150502224471186,  // c[27]: -P[5] of 29
        0.13446199615788765,  // c[28]: Q[9] of 29
        0.3603875070846735,  // c[29]: -P[9] of 29
        0.3777140697119294,  // c[30]: P[7] of 29
        0.07274108340629196,  // c[31]: Q[7] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
        0.11501162603233117,  // c[34]: Q[8] of 59
        0.0638323763819381,  // c[35]: -P[9] of 59
        0.238593595389464,  // c[36]: P[8] of 59
        0.2570603151186636,  // c[37]: Q[9] of 59
        0.15410629769252931,  // c[38]: -P[20] of 59
        0.2309299428168255,  // c[39]: -Q[21] of 59
        0.21542011720118803,  // c[40]: Q[20] of 59
        0.1297148387582923,  // c[41]: P[21] of 59
        0.2561089569283855,  // c[42]: Q[6] of 59
        0.26378234639543136,  // c[43]: -P[15] of 59
        0.06754835352935287,  // c[44]: P[6] of 59
        0.02394684976343933,  // c[45]: Q[15] of 59
        0.13329431386769738,  // c[46]: -P[14] of 59
        0.26033742546207705,  // c[47]: Q[23] of 59
        0.22888251085220956,  // c[48]: Q[14] of 59
        0.0487750221655463,  // c[49]: -P[23] of 59
        0.08920241088977601,  // c[50]: Q[12] of 59
        0.26445074818613296,  // c[51]: Q[1] of 59
        0.24939428176067635,  // c[52]: -P[12] of 59
        0.014845190038075228,  // c[53]: -P[1] of 59
        0.240603592321257,  // c[54]: Q[10] of 59
        0.2377423799688404,  // c[55]: P[19] of 59
        0.11074515450157817,  // c[56]: P[10] of 59
        0.11676103224202658,  // c[57]: Q[19] of 59
        0.2644019076085337,  // c[58]: Q[4] of 59
        0.12154489634858227,  // c[59]: -Q[25] of 59
        0.015691052751184383,  // c[60]: -P[4] of 59
        0.23533256479944387,  // c[61]: P[25] of 59
        0.2507047860557158,  // c[62]: P[28] of 59
        0.1612612423114406,  // c[63]: -Q[17] of 59
        0.0854499159287465,  // c[64]: Q[28] of 59
        0.210117561407044,  // c[65]: P[17] of 59
        0.23880474209212857,  // c[66]: P[16] of 59
        0.2374982361930323,  // c[67]: -Q[13] of 59
        0.11457256668934328,  // c[68]: -Q[16] of 59
        0.11725683642615767,  // c[69]: -P[13] of 59
        0.23429573625085479,  // c[70]: P[18] of 59
        0.21629167322460174,  // c[71]: -P[11] of 59
        0.12353172004850395,  // c[72]: -Q[18] of 59
        0.15288063964143453,  // c[73]: -Q[11] of 59
        0.1670393661682332,  // c[74]: Q[22] of 59
        0.25249265337152266,  // c[75]: P[7] of 59
        0.20555395406945343,  // c[76]: P[22] of 59
        0.08001273571676054,  // c[77]: Q[7] of 59
        0.14536461098959946,  // c[78]: Q[26] of 59
        0.25083970924567417,  // c[79]: P[3] of 59
        0.2214129800967289,  // c[80]: P[26] of 59
        0.08505303139228909,  // c[81]: Q[3] of 59
        0.008222825940389141,  // c[82]: -Q[24] of 59
        0.26386145948235246,  // c[83]: -Q[5] of 59
        0.26473942475012313,  // c[84]: -P[24] of 59
        0.02305879622432487,  // c[85]: -P[5] of 59
        0.044264026096884644,  // c[86]: -Q[2] of 59
        0.25925932295435405,  // c[87]: -P[27] of 59
        0.26114224835741606,  // c[88]: P[2] of 59
        0.05421421718259892,  // c[89]: Q[27] of 59
        0.017241379310344827,  // c[90]: 1/58
        0.13243354737704496,  // c[91]: beta of 59
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x1_4 = io.pairs(1, 4);
        const Q x58_55 = io.pairs(58, 55);
        // real block of 2
        const Q t0 = x1_4 + x58_55;
        const Q t1 = x1_4 - x58_55;
        const Q x29_57 = io.pairs(29, 57);
        const Q x30_2 = io.pairs(30, 2);
        // real block of 2
        const Q t2 = x29_57 + x30_2;
        const Q t3 = x29_57 - x30_2;
        const Q x16_5 = io.pairs(16, 5);
        const Q x43_54 = io.pairs(43, 54);
        // real block of 2
        const Q t4 = x16_5 + x43_54;
        const Q t5 = x16_5 - x43_54;
        const Q x28_53 = io.pairs(28, 53);
        const Q x31_6 = io.pairs(31, 6);
        // real block of 2
        const Q t6 = x28_53 + x31_6;
        const Q t7 = x28_53 - x31_6;
        const Q x46_7 = io.pairs(46, 7);
        const Q x13_52 = io.pairs(13, 52);
        // real block of 2
        const Q t8 = x46_7 + x13_52;
        const Q t9 = x46_7 - x13_52;
        const Q x51_27 = io.pairs(51, 27);
        const Q x8_32 = io.pairs(8, 32);
        // real block of 2
        const Q t10 = x51_27 + x8_32;
        const Q t11 = x51_27 - x8_32;
        const Q x17_9 = io.pairs(17, 9);
        const Q x42_50 = io.pairs(42, 50);
        // real block of 2
        const Q t12 = x17_9 + x42_50;
        const Q t13 = x17_9 - x42_50;
        const Q x49_19 = io.pairs(49, 19);
        const Q x10_40 = io.pairs(10, 40);
        // real block of 2
        const Q t14 = x49_19 + x10_40;
        const Q t15 = x49_19 - x10_40;
        const Q x12_48 = io.pairs(12, 48);
        const Q x47_11 = io.pairs(47, 11);
        // real block of 2
        const Q t16 = x12_48 + x47_11;
        const Q t17 = x12_48 - x47_11;
        const Q x35_22 = io.pairs(35, 22);
        const Q x24_37 = io.pairs(24, 37);
        // real block of 2
        const Q t18 = x35_22 + x24_37;
        const Q t19 = x35_22 - x24_37;
        const Q t20 = shuffled<0, 1, 4, 5>(t10, t11);
        const Q t21 = shuffled<0, 1, 4, 5>(t12, t13);
        // real block of 7, multiplier 4
        const Q t22 = t20 + t21;
        const Q t23 = t20 - t21;
        const Q t24 = shuffled<0, 1, 4, 5>(t14, t15);
        const Q t25 = shuffled<0, 1, 4, 5>(t8, t9);
        // real block of 7, multiplier 4
        const Q t26 = t24 + t25;
        const Q t27 = t24 - t25;
        const Q t28 = shuffled<2, 3, 6, 7>(t2, t3);
        const Q t29 = shuffled<2, 3, 6, 7>(t16, t17);
        const Q t30 = t28 + t29;
        const Q t31 = t28 - t29;
        const Q t32 = shuffled<0, 1, 4, 5>(t6, t7);
        const Q t33 = shuffled<0, 1, 4, 5>(t16, t17);
        const Q t34 = t32 - t33;
        const Q t35 = shuffled<2, 3, 6, 7>(t18, t19);
        const Q t36 = shuffled<2, 3, 6, 7>(t8, t9);
        // real block of 7, multiplier 4
        const Q t37 = t35 + t36;
        const Q t38 = t35 - t36;
        const Q t39 = shuffled<2, 3, 6, 7>(t6, t7);
        const Q t40 = shuffled<2, 3, 6, 7>(t12, t13);
        // real block of 7, multiplier 4
        const Q t41 = t39 + t40;
        const Q t42 = t39 - t40;
        const Q t43 = shuffled<0, 1, 4, 5>(t2, t3);
        const Q t44 = shuffled<0, 1, 4, 5>(t4, t5);
        const Q t45 = t43 + t44;
        const Q t46 = t43 - t44;
        const Q t47 = shuffled<2, 3, 6, 7>(t14, t15);
        const Q t48 = shuffled<2, 3, 6, 7>(t4, t5);
        const Q t49 = t47 - t48;
        const Q x45_3 = io.pairs(45, 3);
        const Q x14_56 = io.pairs(14, 56);
        // real block of 2
        const Q t50 = x45_3 + x14_56;
        const Q t51 = x45_3 - x14_56;
        const Q x25_41 = io.pairs(25, 41);
        const Q x34_18 = io.pairs(34, 18);
        // real block of 2
        const Q t52 = x25_41 + x34_18;
        const Q t53 = x25_41 - x34_18;
        const Q x20_21 = io.pairs(20, 21);
        const Q x39_38 = io.pairs(39, 38);
        // real block of 2
        const Q t54 = x20_21 + x39_38;
        const Q t55 = x20_21 - x39_38;
        const Q x36_26 = io.pairs(36, 26);
        const Q x23_33 = io.pairs(23, 33);
        // real block of 2
        const Q t56 = x36_26 + x23_33;
        const Q t57 = x36_26 - x23_33;
        const Q t58 = shuffled<2, 3, 6, 7>(t56, t57);
        const Q t59 = shuffled<0, 1, 4, 5>(t50, t51);
        // real block of 7, multiplier 4
        const Q t60 = t58 + t59;
        const Q t61 = t58 - t59;
        const Q t62 = shuffled<2, 3, 6, 7>(t50, t51);
        const Q t63 = shuffled<2, 3, 6, 7>(t52, t53);
        const Q t64 = t62 - t63;
        const Q t65 = shuffled<0, 1, 4, 5>(t52, t53);
        const Q t66 = shuffled<2, 3, 6, 7>(t54, t55);
        // real block of 7, multiplier 4
        const Q t67 = t65 + t66;
        const Q t68 = t65 - t66;
        const Q t69 = shuffled<0, 1, 4, 5>(t54, t55);
        const Q t70 = shuffled<0, 1, 4, 5>(t56, t57);
        const Q t71 = t69 - t70;
        const P x15 = io.pair(15);
        const P x44 = io.pair(44);
        // real block of 2
        const P t72 = x15 + x44;
        const P t73 = x15 - x44;
        // real block of 7, multiplier 4
        const Q t74 = t62 + t63;
        const Q t75 = t22 + t60;
        const Q t76 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t77 = c[0] * t22;
        const Q t78 = t76 - t77;
        const Q t79 = c[1] * t23;
        const Q t80 = c[2] * t61;
        const Q t81 = t79 + t80;
        const Q t82 = c[3] * t22;
        const Q t83 = c[4] * t60;
        const Q t84 = t82 - t83;
        const Q t85 = c[5] * t61;
        const Q t86 = c[1] * t64;
        const Q t87 = t85 + t86;
        const Q t88 = c[4] * t22;
        const Q t89 = t76 - t88;
        const Q t90 = c[5] * t23;
        const Q t91 = c[1] * t61;
        const Q t92 = t90 + t91;
        // real block of 7, multiplier 4
        const Q t93 = t32 + t33;
        const Q t94 = t26 + t30;
        const Q t95 = shuffled<0, 1, 4, 5>(t18, t19);
        const Q t96 = c[0] * t26;
        const Q t97 = t95 - t96;
        const Q t98 = c[1] * t27;
        const Q t99 = c[2] * t31;
        const Q t100 = t98 + t99;
        const Q t101 = c[3] * t26;
        const Q t102 = c[4] * t30;
        const Q t103 = t101 - t102;
        const Q t104 = c[5] * t31;
        const Q t105 = c[1] * t34;
        const Q t106 = t104 + t105;
        const Q t107 = c[4] * t26;
        const Q t108 = t95 - t107;
        const Q t109 = c[5] * t27;
        const Q t110 = c[1] * t31;
        const Q t111 = t109 + t110;
        // real block of 7, multiplier 4
        const Q t112 = t69 + t70;
        const Q t113 = t37 + t67;
        const Q t114 = joined(t72, t73);
        const Q t115 = c[0] * t37;
        const Q t116 = t114 - t115;
        const Q t117 = c[1] * t38;
        const Q t118 = c[2] * t68;
        const Q t119 = t117 + t118;
        const Q t120 = c[3] * t37;
        const Q t121 = c[4] * t67;
        const Q t122 = t120 - t121;
        const Q t123 = c[5] * t68;
        const Q t124 = c[1] * t71;
        const Q t125 = t123 + t124;
        const Q t126 = c[4] * t37;
        const Q t127 = t114 - t126;
        const Q t128 = c[5] * t38;
        const Q t129 = c[1] * t68;
        const Q t130 = t128 + t129;
        // real block of 7, multiplier 4
        const Q t131 = t47 + t48;
        const Q t132 = t41 + t45;
        const Q t133 = shuffled<2, 3, 6, 7>(t10, t11);
        const Q t134 = c[0] * t41;
        const Q t135 = t133 - t134;
        const Q t136 = c[1] * t42;
        const Q t137 = c[2] * t46;
        const Q t138 = t136 + t137;
        const Q t139 = c[3] * t41;
        const Q t140 = c[4] * t45;
        const Q t141 = t139 - t140;
        const Q t142 = c[5] * t46;
        const Q t143 = c[1] * t49;
        const Q t144 = t142 + t143;
        const Q t145 = c[4] * t41;
        const Q t146 = t133 - t145;
        const Q t147 = c[5] * t42;
        const Q t148 = c[1] * t46;
        const Q t149 = t147 + t148;
        // real block of 7, multiplier 4
        const Q t150 = t75 + t74;
        const Q t151 = t150 + t76;
        // real block of 7, multiplier 4
        const Q t152 = t94 + t93;
        const Q t153 = t152 + t95;
        // real block of 7, multiplier 4
        const Q t154 = t113 + t112;
        const Q t155 = t154 + t114;
        // real block of 7, multiplier 4
        const Q t156 = t132 + t131;
        const Q t157 = t156 + t133;
        // real block of 2
        const Q t158 = t151 + t155;
        // real block of 2
        const Q t159 = t153 + t157;
        // real block of 2
        const Q t160 = t158 + t159;
        const Q t161 = t158 - t159;
        // real block of 2
        const Q t162 = t151 - t155;
        // real block of 2
        const Q t163 = t153 - t157;
        // real block of 7, multiplier 4
        const Q t164 = c[3] * t60;
        const Q t165 = t78 + t164;
        const Q t166 = c[4] * t74;
        const Q t167 = t165 - t166;
        // real block of 7, multiplier 4
        const Q t168 = c[3] * t67;
        const Q t169 = t116 + t168;
        const Q t170 = c[4] * t112;
        const Q t171 = t169 - t170;
        // complex block of 2
        const Q t172 = t167 - t171;
        // real block of 7, multiplier 4
        const Q t173 = c[5] * t64;
        const Q t174 = t81 - t173;
        // real block of 7, multiplier 4
        const Q t175 = c[5] * t71;
        const Q t176 = t119 - t175;
        // complex block of 2
        const Q t177 = t174 + t176;
        const Q t178 = t174 - t176;
        // real block of 7, multiplier 4
        const Q t179 = c[3] * t30;
        const Q t180 = t97 + t179;
        const Q t181 = c[4] * t93;
        const Q t182 = t180 - t181;
        // real block of 7, multiplier 4
        const Q t183 = c[3] * t45;
        const Q t184 = t135 + t183;
        const Q t185 = c[4] * t131;
        const Q t186 = t184 - t185;
        // complex block of 2
        const Q t187 = t182 - t186;
        // real block of 7, multiplier 4
        const Q t188 = c[5] * t34;
        const Q t189 = t100 - t188;
        // real block of 7, multiplier 4
        const Q t190 = c[5] * t49;
        const Q t191 = t138 - t190;
        // complex block of 2
        const Q t192 = t189 + t191;
        const Q t193 = t189 - t191;
        // complex block of 2
        const Q t194 = t167 + t171;
        // complex block of 2
        const Q t195 = t182 + t186;
        // complex block of 2
        const Q t196 = t194 + t195;
        const Q t197 = t194 - t195;
        const Q t198 = t177 + t192;
        const Q t199 = t177 - t192;
        // complex block of 2
        const Q t200 = t172 - t193;
        const Q t201 = t178 + t187;
        const Q t202 = t172 + t193;
        const Q t203 = t178 - t187;
        // real block of 7, multiplier 4
        const Q t204 = c[0] * t74;
        const Q t205 = t84 - t204;
        const Q t206 = t205 + t76;
        const Q t207 = c[2] * t23;
        const Q t208 = t87 - t207;
        // real block of 7, multiplier 4
        const Q t209 = c[2] * t38;
        const Q t210 = t125 - t209;
        // complex block of 2
        const Q t211 = t208 + t210;
        const Q t212 = t208 - t210;
        // real block of 7, multiplier 4
        const Q t213 = c[0] * t93;
        const Q t214 = t103 - t213;
        const Q t215 = t214 + t95;
        const Q t216 = c[2] * t27;
        const Q t217 = t106 - t216;
        // real block of 7, multiplier 4
        const Q t218 = c[2] * t42;
        const Q t219 = t144 - t218;
        // complex block of 2
        const Q t220 = t217 + t219;
        const Q t221 = t217 - t219;
        // real block of 7, multiplier 4
        const Q t222 = c[0] * t112;
        const Q t223 = t122 - t222;
        const Q t224 = t223 + t114;
        // real block of 7, multiplier 4
        const Q t225 = c[0] * t131;
        const Q t226 = t141 - t225;
        const Q t227 = t226 + t133;
        // complex block of 2
        const Q t228 = t206 + t224;
        // complex block of 2
        const Q t229 = t215 + t227;
        // complex block of 2
        const Q t230 = t228 + t229;
        const Q t231 = t228 - t229;
        // complex block of 2
        const Q t232 = t206 - t224;
        // complex block of 2
        const Q t233 = t232 - t221;
        const Q t234 = t232 + t221;
        // complex block of 2
        const Q t235 = t215 - t227;
        // complex block of 2
        const Q t236 = t212 + t235;
        const Q t237 = t212 - t235;
        // complex block of 2
        const Q t238 = t211 + t220;
        const Q t239 = t211 - t220;
        // real block of 7, multiplier 4
        const Q t240 = c[0] * t60;
        const Q t241 = t89 - t240;
        const Q t242 = c[3] * t74;
        const Q t243 = t241 + t242;
        // real block of 7, multiplier 4
        const Q t244 = c[0] * t67;
        const Q t245 = t127 - t244;
        const Q t246 = c[3] * t112;
        const Q t247 = t245 + t246;
        // complex block of 2
        const Q t248 = t243 - t247;
        // real block of 7, multiplier 4
        const Q t249 = c[2] * t64;
        const Q t250 = t92 + t249;
        // real block of 7, multiplier 4
        const Q t251 = c[2] * t71;
        const Q t252 = t130 + t251;
        // complex block of 2
        const Q t253 = t250 + t252;
        const Q t254 = t250 - t252;
        // real block of 7, multiplier 4
        const Q t255 = c[0] * t30;
        const Q t256 = t108 - t255;
        const Q t257 = c[3] * t93;
        const Q t258 = t256 + t257;
        // real block of 7, multiplier 4
        const Q t259 = c[0] * t45;
        const Q t260 = t146 - t259;
        const Q t261 = c[3] * t131;
        const Q t262 = t260 + t261;
        // complex block of 2
        const Q t263 = t258 - t262;
        // real block of 7, multiplier 4
        const Q t264 = c[2] * t34;
        const Q t265 = t111 + t264;
        // real block of 7, multiplier 4
        const Q t266 = c[2] * t49;
        const Q t267 = t149 + t266;
        // complex block of 2
        const Q t268 = t265 + t267;
        const Q t269 = t265 - t267;
        // complex block of 2
        const Q t270 = t243 + t247;
        // complex block of 2
        const Q t271 = t258 + t262;
        // complex block of 2
        const Q t272 = t270 + t271;
        const Q t273 = t270 - t271;
        const Q t274 = t253 + t268;
        const Q t275 = t253 - t268;
        // complex block of 2
        const Q t276 = t248 - t269;
        const Q t277 = t254 + t263;
        const Q t278 = t248 + t269;
        const Q t279 = t254 - t263;
        const Q t280 = shuffled<0, 1, 4, 5>(t0, t1);
        // real block of 29, multiplier 2
        const Q t281 = t280 + t160;
        const Q t282 = c[32] * t160;
        const Q t283 = t280 - t282;
        const Q t284 = c[6] * t196;
        const Q t285 = c[7] * t198;
        const Q t286 = t284 + t285;
        const Q t287 = c[8] * t197;
        const Q t288 = c[9] * t199;
        const Q t289 = t287 + t288;
        // complex block of 2
        const Q t290 = t286 - t289;
        const Q t291 = t286 + t289;
        // real block of 29, multiplier 2
        const Q t292 = c[10] * t231;
        const Q t293 = c[11] * t239;
        const Q t294 = t292 - t293;
        const Q t295 = c[12] * t230;
        const Q t296 = c[13] * t238;
        const Q t297 = t295 - t296;
        // complex block of 2
        const Q t298 = t297 - t294;
        // real block of 29, multiplier 2
        const Q t299 = c[33] * t161;
        // spectrum block of 2
        const Q t300 = t283 - t299;
        // spectrum block of 7, multiplier 2
        const Q t301 = c[4] * t290;
        const Q t302 = t300 - t301;
        // spectrum block of 2
        const Q t303 = t283 + t299;
        // spectrum block of 7, multiplier 2
        const Q t304 = c[4] * t291;
        const Q t305 = t303 - t304;
        const Q t306 = c[0] * t291;
        const Q t307 = t303 - t306;
        // complex block of 2
        const Q t308 = t297 + t294;
        // spectrum block of 7, multiplier 2
        const Q t309 = t290 + t308;
        // spectrum block of 7, multiplier 2
        const Q t310 = t291 + t298;
        const Q t311 = c[3] * t291;
        const Q t312 = c[4] * t298;
        const Q t313 = t311 - t312;
        // real block of 29, multiplier 2
        const Q t314 = c[14] * t234;
        const Q t315 = c[15] * t237;
        const Q t316 = t314 + t315;
        const Q t317 = c[16] * t233;
        const Q t318 = c[17] * t236;
        const Q t319 = t317 - t318;
        // complex block of 2
        const Q t320 = t316 + t319;
        // real block of 29, multiplier 2
        const Q t321 = c[14] * t237;
        const Q t322 = c[15] * t234;
        const Q t323 = t321 - t322;
        const Q t324 = c[16] * t236;
        const Q t325 = c[17] * t233;
        const Q t326 = t324 + t325;
        // complex block of 2
        const Q t327 = t323 + t326;
        const Q t328 = t319 - t316;
        const Q t329 = t323 - t326;
        // mirrored skew block of 14
        const Q t330 = c[5] * t327;
        const Q t331 = c[4] * t320;
        const Q t332 = t330 + t331;
        const Q t333 = c[4] * t327;
        const Q t334 = c[5] * t320;
        const Q t335 = t333 - t334;
        // real block of 29, multiplier 2
        const Q t336 = c[18] * t273;
        const Q t337 = c[19] * t275;
        const Q t338 = t336 + t337;
        const Q t339 = c[20] * t272;
        const Q t340 = c[21] * t274;
        const Q t341 = t339 + t340;
        // complex block of 2
        const Q t342 = t341 + t338;
        const Q t343 = t341 - t338;
        // real block of 29, multiplier 2
        const Q t344 = c[19] * t273;
        const Q t345 = c[18] * t275;
        const Q t346 = t344 - t345;
        const Q t347 = c[20] * t274;
        const Q t348 = c[21] * t272;
        const Q t349 = t347 - t348;
        // complex block of 2
        const Q t350 = t349 - t346;
        const Q t351 = t349 + t346;
        // real block of 29, multiplier 2
        const Q t352 = c[22] * t202;
        const Q t353 = c[23] * t203;
        const Q t354 = t352 + t353;
        const Q t355 = c[24] * t200;
        const Q t356 = c[25] * t201;
        const Q t357 = t355 - t356;
        // complex block of 2
        const Q t358 = t354 + t357;
        const Q t359 = t357 - t354;
        // real block of 29, multiplier 2
        const Q t360 = c[23] * t202;
        const Q t361 = c[22] * t203;
        const Q t362 = t360 - t361;
        const Q t363 = c[24] * t201;
        const Q t364 = c[25] * t200;
        const Q t365 = t363 + t364;
        // complex block of 2
        const Q t366 = t362 - t365;
        const Q t367 = t362 + t365;
        // real block of 29, multiplier 2
        const Q t368 = c[26] * t279;
        const Q t369 = c[27] * t278;
        const Q t370 = t368 - t369;
        const Q t371 = c[28] * t277;
        const Q t372 = c[29] * t276;
        const Q t373 = t371 - t372;
        // complex block of 2
        const Q t374 = t370 + t373;
        const Q t375 = t373 - t370;
        // real block of 29, multiplier 2
        const Q t376 = c[27] * t279;
        const Q t377 = c[26] * t278;
        const Q t378 = t376 + t377;
        const Q t379 = c[29] * t277;
        const Q t380 = c[28] * t276;
        const Q t381 = t379 + t380;
        // complex block of 2
        const Q t382 = t378 + t381;
        const Q t383 = t381 - t378;
        // real block of 29, multiplier 2
        const Q t384 = c[30] * t163;
        const Q t385 = c[31] * t162;
        const Q t386 = t384 + t385;
        // mirrored skew block of 14
        const Q t387 = c[2] * t366;
        const Q t388 = c[3] * t358;
        const Q t389 = t387 + t388;
        const Q t390 = c[3] * t366;
        const Q t391 = c[2] * t358;
        const Q t392 = t390 - t391;
        const Q t393 = c[0] * t374;
        const Q t394 = c[1] * t382;
        const Q t395 = t393 - t394;
        const Q t396 = c[1] * t374;
        const Q t397 = c[0] * t382;
        const Q t398 = t396 + t397;
        // spectrum block of 7, multiplier 2
        const Q t399 = t383 + t367;
        const Q t400 = c[3] * t383;
        const Q t401 = c[4] * t367;
        const Q t402 = t400 - t401;
        const Q t403 = c[2] * t375;
        const Q t404 = c[5] * t359;
        const Q t405 = t403 + t404;
        const Q t406 = c[4] * t383;
        const Q t407 = t386 - t406;
        const Q t408 = c[0] * t383;
        const Q t409 = t386 - t408;
        // real block of 29, multiplier 2
        const Q t410 = c[6] * t198;
        const Q t411 = c[7] * t196;
        const Q t412 = t410 - t411;
        const Q t413 = c[8] * t199;
        const Q t414 = c[9] * t197;
        const Q t415 = t413 - t414;
        // complex block of 2
        const Q t416 = t412 - t415;
        const Q t417 = t412 + t415;
        // real block of 29, multiplier 2
        const Q t418 = c[10] * t239;
        const Q t419 = c[11] * t231;
        const Q t420 = t418 + t419;
        const Q t421 = c[12] * t238;
        const Q t422 = c[13] * t230;
        const Q t423 = t421 + t422;
        // complex block of 2
        const Q t424 = t423 + t420;
        const Q t425 = t423 - t420;
        // real block of 29, multiplier 2
        const Q t426 = c[30] * t162;
        const Q t427 = c[31] * t163;
        const Q t428 = t426 - t427;
        // spectrum block of 7, multiplier 2
        const Q t429 = t309 + t342;
        const Q t430 = t429 + t300;
        const Q t431 = c[3] * t290;
        const Q t432 = c[4] * t308;
        const Q t433 = t431 - t432;
        const Q t434 = c[0] * t342;
        const Q t435 = t433 - t434;
        const Q t436 = c[2] * t416;
        const Q t437 = c[5] * t424;
        const Q t438 = t436 + t437;
        const Q t439 = c[1] * t350;
        const Q t440 = t438 + t439;
        const Q t441 = t435 + t300;
        const Q t442 = t441 - t440;
        const Q t443 = t441 + t440;
        const Q t444 = c[0] * t308;
        const Q t445 = t302 - t444;
        const Q t446 = c[3] * t342;
        const Q t447 = t445 + t446;
        const Q t448 = c[5] * t416;
        const Q t449 = c[1] * t424;
        const Q t450 = t448 - t449;
        const Q t451 = c[2] * t350;
        const Q t452 = t450 - t451;
        // spectrum block of 7, multiplier 2
        const Q t453 = c[0] * t298;
        const Q t454 = t305 - t453;
        const Q t455 = c[3] * t343;
        const Q t456 = t454 + t455;
        const Q t457 = c[5] * t417;
        const Q t458 = c[1] * t425;
        const Q t459 = t457 - t458;
        const Q t460 = c[2] * t351;
        const Q t461 = t459 - t460;
        // spectrum block of 7, multiplier 2
        const Q t462 = c[0] * t329;
        const Q t463 = t402 - t462;
        const Q t464 = t463 + t386;
        const Q t465 = c[1] * t328;
        const Q t466 = t405 + t465;
        // spectrum block of 7, multiplier 2
        const Q t467 = t447 - t452;
        const Q t468 = t447 + t452;
        // spectrum block of 7, multiplier 2
        const Q t469 = t456 - t461;
        const Q t470 = t456 + t461;
        // spectrum block of 7, multiplier 2
        const Q t471 = t464 + t466;
        const Q t472 = t464 - t466;
        // spectrum block of 7, multiplier 2
        const Q t473 = c[0] * t290;
        const Q t474 = t300 - t473;
        const Q t475 = c[3] * t308;
        const Q t476 = t474 + t475;
        const Q t477 = c[1] * t416;
        const Q t478 = c[2] * t424;
        const Q t479 = t477 - t478;
        const Q t480 = c[5] * t350;
        const Q t481 = t479 + t480;
        const Q t482 = c[4] * t342;
        const Q t483 = t476 - t482;
        const Q t484 = t483 - t481;
        const Q t485 = t483 + t481;
        // spectrum block of 7, multiplier 2
        const Q t486 = t310 + t343;
        const Q t487 = t486 + t303;
        const Q t488 = c[0] * t343;
        const Q t489 = t313 - t488;
        const Q t490 = t489 + t303;
        const Q t491 = c[2] * t417;
        const Q t492 = c[5] * t425;
        const Q t493 = t491 + t492;
        const Q t494 = c[1] * t351;
        const Q t495 = t493 + t494;
        const Q t496 = c[3] * t298;
        const Q t497 = t307 + t496;
        const Q t498 = c[4] * t343;
        const Q t499 = t497 - t498;
        const Q t500 = c[1] * t417;
        const Q t501 = c[2] * t425;
        const Q t502 = t500 - t501;
        const Q t503 = c[5] * t351;
        const Q t504 = t502 + t503;
        // spectrum block of 7, multiplier 2
        const Q t505 = t395 + t389;
        const Q t506 = t505 + t332;
        const Q t507 = c[4] * t395;
        const Q t508 = t428 - t507;
        const Q t509 = c[0] * t389;
        const Q t510 = t508 - t509;
        const Q t511 = c[3] * t332;
        const Q t512 = t510 + t511;
        const Q t513 = c[5] * t398;
        const Q t514 = c[1] * t392;
        const Q t515 = t513 + t514;
        const Q t516 = c[2] * t335;
        const Q t517 = t515 + t516;
        // spectrum block of 7, multiplier 2
        const Q t518 = t490 - t495;
        const Q t519 = t499 + t504;
        // spectrum block of 7, multiplier 2
        const Q t520 = t506 + t428;
        const Q t521 = t512 + t517;
        // spectrum block of 7, multiplier 2
        const Q t522 = t490 + t495;
        const Q t523 = t499 - t504;
        // spectrum block of 7, multiplier 2
        const Q t524 = t512 - t517;
        // spectrum block of 7, multiplier 2
        const Q t525 = t399 + t329;
        const Q t526 = t525 + t386;
        const Q t527 = c[0] * t367;
        const Q t528 = t407 - t527;
        const Q t529 = c[3] * t329;
        const Q t530 = t528 + t529;
        const Q t531 = c[1] * t359;
        const Q t532 = c[5] * t375;
        const Q t533 = t531 - t532;
        const Q t534 = c[2] * t328;
        const Q t535 = t533 + t534;
        const Q t536 = t530 - t535;
        const Q t537 = t530 + t535;
        const Q t538 = c[3] * t367;
        const Q t539 = t409 + t538;
        const Q t540 = c[4] * t329;
        const Q t541 = t539 - t540;
        const Q t542 = c[2] * t359;
        const Q t543 = c[1] * t375;
        const Q t544 = t542 - t543;
        const Q t545 = c[5] * t328;
        const Q t546 = t544 - t545;
        const Q t547 = t541 - t546;
        const Q t548 = t541 + t546;
        // spectrum block of 7, multiplier 2
        const Q t549 = c[3] * t395;
        const Q t550 = c[4] * t389;
        const Q t551 = t549 - t550;
        const Q t552 = c[0] * t332;
        const Q t553 = t551 - t552;
        const Q t554 = c[2] * t398;
        const Q t555 = c[5] * t392;
        const Q t556 = t554 - t555;
        const Q t557 = t553 + t428;
        const Q t558 = c[1] * t335;
        const Q t559 = t556 - t558;
        const Q t560 = t557 - t559;
        const Q t561 = t557 + t559;
        const Q t562 = c[0] * t395;
        const Q t563 = t428 - t562;
        const Q t564 = c[3] * t389;
        const Q t565 = t563 + t564;
        const Q t566 = c[1] * t398;
        const Q t567 = c[2] * t392;
        const Q t568 = t566 + t567;
        const Q t569 = c[4] * t332;
        const Q t570 = t565 - t569;
        const Q t571 = c[5] * t335;
        const Q t572 = t568 - t571;
        const Q t573 = t570 - t572;
        const Q t574 = t570 + t572;
        const P x0 = io.pair(0);
        const P t575 = part<0>(t281);
        // complex block of 59
        const P t576 = x0 + t575;
        io.pair(0, t576);
        const P t577 = c[90] * t575;
        const P t578 = x0 - t577;
        const Q t579 = shuffled<1, 0, 3, 2>(t524);
        const Q t580 = shuffled<0, 1, 6, 7>(t472, t579);
        const Q t581 = Q(c[34], c[34], -c[35], c[35]) * t580;
        const Q t582 = shuffled<1, 0, 3, 2>(t470);
        const Q t583 = shuffled<0, 1, 6, 7>(t468, t582);
        const Q t584 = Q(c[36], c[36], c[37], -c[37]) * t583;
        const Q t585 = t581 + t584;
        const Q t586 = shuffled<1, 0, 3, 2>(t468);
        const Q t587 = shuffled<0, 1, 6, 7>(t470, t586);
        const Q t588 = Q(c[38], c[38], c[39], c[39]) * t587;
        const Q t589 = shuffled<1, 0, 3, 2>(t472);
        const Q t590 = shuffled<0, 1, 6, 7>(t524, t589);
        const Q t591 = Q(c[40], c[40], c[41], c[41]) * t590;
        const Q t592 = t588 + t591;
        const Q t593 = flipped<0, 0, 0, 1>(t585);
        // real block of 2
        const Q t594 = t592 + t593;
        const Q t595 = flipped<0, 0, 0, 1>(t592);
        const Q t596 = t585 - t595;
        const Q t597 = shuffled<1, 0, 3, 2>(t471);
        const Q t598 = shuffled<0, 1, 6, 7>(t574, t597);
        // complex block of 59
        const Q t599 = Q(c[42], c[42], -c[43], c[43]) * t598;
        const Q t600 = shuffled<1, 0, 3, 2>(t467);
        const Q t601 = shuffled<0, 1, 6, 7>(t469, t600);
        const Q t602 = Q(c[44], c[44], c[45], -c[45]) * t601;
        const Q t603 = t599 + t602;
        const Q t604 = shuffled<1, 0, 3, 2>(t469);
        const Q t605 = shuffled<0, 1, 6, 7>(t467, t604);
        const Q t606 = Q(c[46], c[46], c[47], c[47]) * t605;
        const Q t607 = shuffled<1, 0, 3, 2>(t574);
        const Q t608 = shuffled<0, 1, 6, 7>(t471, t607);
        const Q t609 = Q(c[48], c[48], c[49], c[49]) * t608;
        const Q t610 = t606 + t609;
        const Q t611 = flipped<0, 0, 1, 0>(t610);
        // real block of 2
        const Q t612 = t603 + t611;
        const Q t613 = t603 - t611;
        const Q t614 = flipped<0, 0, 1, 0>(t594);
        const Q t615 = flipped<1, 1, 0, 0>(t612);
        // real block of 7, multiplier 2
        const Q t616 = t614 + t615;
        const Q t617 = flipped<1, 1, 0, 1>(t615);
        const Q t618 = t594 + t617;
        // real block of 7, multiplier 2
        const Q t619 = t596 + t613;
        const Q t620 = t596 - t613;
        const Q t621 = shuffled<1, 0, 3, 2>(t518);
        const Q t622 = shuffled<0, 1, 6, 7>(t548, t621);
        // complex block of 59
        const Q t623 = Q(c[50], c[50], c[51], c[51]) * t622;
        const Q t624 = shuffled<1, 0, 3, 2>(t520);
        const Q t625 = shuffled<0, 1, 6, 7>(t442, t624);
        const Q t626 = Q(-c[52], -c[52], c[53], c[53]) * t625;
        const Q t627 = t623 + t626;
        const Q t628 = shuffled<0, 5, 3, 6>(t547, t547);
        const Q t629 = Q(c[54], c[54], -c[55], c[55]) * t628;
        const Q t630 = shuffled<0, 5, 3, 6>(t443, t443);
        const Q t631 = Q(c[56], c[56], c[57], -c[57]) * t630;
        const Q t632 = t629 + t631;
        const Q t633 = shuffled<1, 0, 3, 2>(t522);
        const Q t634 = shuffled<0, 1, 6, 7>(t561, t633);
        const Q t635 = Q(c[58], c[58], c[59], c[59]) * t634;
        const Q t636 = shuffled<1, 0, 3, 2>(t561);
        const Q t637 = shuffled<0, 1, 6, 7>(t522, t636);
        const Q t638 = Q(-c[60], -c[60], c[61], c[61]) * t637;
        const Q t639 = t635 + t638;
        const Q t640 = shuffled<1, 0, 3, 2>(t442);
        const Q t641 = shuffled<0, 1, 6, 7>(t518, t640);
        const Q t642 = Q(c[62], c[62], c[63], c[63]) * t641;
        const Q t643 = shuffled<1, 0, 3, 2>(t548);
        const Q t644 = shuffled<0, 1, 6, 7>(t520, t643);
        const Q t645 = Q(c[64], c[64], c[65], c[65]) * t644;
        const Q t646 = t642 + t645;
        const Q t647 = flipped<0, 0, 1, 0>(t639);
        // real block of 2
        const Q t648 = t632 - t647;
        const Q t649 = flipped<1, 1, 0, 0>(t646);
        // real block of 2
        const Q t650 = t649 + t627;
        const Q t651 = flipped<0, 0, 1, 0>(t650);
        // real block of 7, multiplier 2
        const Q t652 = t648 + t651;
        const Q t653 = t648 - t651;
        const Q t654 = flipped<1, 1, 1, 0>(t649);
        const Q t655 = flipped<0, 0, 0, 1>(t627);
        // real block of 2
        const Q t656 = t654 + t655;
        // real block of 2
        const Q t657 = t632 + t647;
        // real block of 7, multiplier 2
        const Q t658 = t657 + t656;
        const Q t659 = t657 - t656;
        const Q t660 = shuffled<0, 5, 3, 6>(t519, t519);
        // complex block of 59
        const Q t661 = Q(c[66], c[66], c[67], c[67]) * t660;
        const Q t662 = shuffled<0, 5, 3, 6>(t521, t521);
        const Q t663 = Q(c[68], c[68], c[69], c[69]) * t662;
        const Q t664 = t661 + t663;
        const Q t665 = shuffled<1, 0, 3, 2>(t536);
        const Q t666 = shuffled<0, 1, 6, 7>(t485, t665);
        const Q t667 = Q(c[70], c[70], c[71], -c[71]) * t666;
        const Q t668 = shuffled<1, 0, 3, 2>(t485);
        const Q t669 = shuffled<0, 1, 6, 7>(t536, t668);
        const Q t670 = Q(c[72], c[72], c[73], -c[73]) * t669;
        const Q t671 = t667 - t670;
        const Q t672 = flipped<0, 0, 1, 0>(t664);
        // real block of 2
        const Q t673 = t671 - t672;
        const Q t674 = t671 + t672;
        const Q t675 = shuffled<0, 5, 3, 6>(t560, t560);
        // complex block of 59
        const Q t676 = Q(c[74], c[74], -c[75], c[75]) * t675;
        const Q t677 = shuffled<0, 5, 3, 6>(t523, t523);
        const Q t678 = Q(c[76], c[76], c[77], -c[77]) * t677;
        const Q t679 = t676 + t678;
        const Q t680 = shuffled<0, 5, 3, 6>(t537, t537);
        const Q t681 = Q(c[78], c[78], -c[79], c[79]) * t680;
        const Q t682 = shuffled<0, 5, 3, 6>(t484, t484);
        const Q t683 = Q(c[80], c[80], c[81], -c[81]) * t682;
        const Q t684 = t681 + t683;
        // real block of 2
        const Q t685 = t684 - t679;
        const Q t686 = t684 + t679;
        // real block of 7, multiplier 2
        const Q t687 = t673 + t685;
        const Q t688 = t673 - t685;
        // real block of 7, multiplier 2
        const Q t689 = t674 + t686;
        const Q t690 = t674 - t686;
        const Q t691 = shuffled<1, 0, 3, 2>(t487);
        const Q t692 = shuffled<0, 1, 6, 7>(t573, t691);
        // complex block of 59
        const Q t693 = Q(c[82], c[82], c[83], c[83]) * t692;
        const Q t694 = shuffled<1, 0, 3, 2>(t573);
        const Q t695 = shuffled<0, 1, 6, 7>(t487, t694);
        const Q t696 = Q(-c[84], -c[84], c[85], c[85]) * t695;
        const Q t697 = t693 + t696;
        const Q t698 = shuffled<0, 5, 3, 6>(t526, t526);
        const Q t699 = Q(c[86], c[86], -c[87], c[87]) * t698;
        const Q t700 = shuffled<0, 5, 3, 6>(t430, t430);
        const Q t701 = Q(c[88], c[88], c[89], -c[89]) * t700;
        const Q t702 = t699 + t701;
        const Q t703 = flipped<0, 0, 1, 0>(t697);
        // real block of 2
        const Q t704 = t702 - t703;
        const Q t705 = t702 + t703;
        // real block of 7, multiplier 2
        const Q t706 = t616 + t687;
        const Q t707 = t706 + t652;
        const Q t708 = t707 + t704;
        const Q t709 = c[5] * t618;
        const Q t710 = Q(c[1], c[1], -c[1], c[1]) * t688;
        const Q t711 = t709 + t710;
        const Q t712 = Q(c[2], c[2], -c[2], c[2]) * t653;
        const Q t713 = t711 + t712;
        const Q t714 = c[4] * t616;
        const Q t715 = t704 - t714;
        const Q t716 = c[0] * t687;
        const Q t717 = t715 - t716;
        const Q t718 = c[3] * t652;
        const Q t719 = t717 + t718;
        const Q t720 = c[0] * t616;
        const Q t721 = t704 - t720;
        const Q t722 = c[3] * t687;
        const Q t723 = t721 + t722;
        const Q t724 = c[4] * t652;
        const Q t725 = t723 - t724;
        const Q t726 = Q(c[1], c[1], -c[1], c[1]) * t618;
        const Q t727 = c[2] * t688;
        const Q t728 = t726 + t727;
        const Q t729 = c[5] * t653;
        const Q t730 = t728 - t729;
        const Q t731 = c[3] * t616;
        const Q t732 = c[4] * t687;
        const Q t733 = t731 - t732;
        const Q t734 = c[0] * t652;
        const Q t735 = t733 - t734;
        const Q t736 = t735 + t704;
        const Q t737 = c[2] * t618;
        const Q t738 = Q(c[5], c[5], -c[5], c[5]) * t688;
        const Q t739 = t737 - t738;
        const Q t740 = Q(c[1], c[1], -c[1], c[1]) * t653;
        const Q t741 = t739 - t740;
        // real block of 7, multiplier 2
        const Q t742 = t619 + t689;
        const Q t743 = t742 + t658;
        const Q t744 = t743 + t705;
        const Q t745 = c[4] * t619;
        const Q t746 = t705 - t745;
        const Q t747 = c[0] * t689;
        const Q t748 = t746 - t747;
        const Q t749 = c[3] * t658;
        const Q t750 = t748 + t749;
        const Q t751 = c[5] * t620;
        const Q t752 = c[1] * t690;
        const Q t753 = t751 + t752;
        const Q t754 = c[2] * t659;
        const Q t755 = t753 + t754;
        const Q t756 = c[0] * t619;
        const Q t757 = t705 - t756;
        const Q t758 = c[3] * t689;
        const Q t759 = t757 + t758;
        const Q t760 = c[4] * t658;
        const Q t761 = t759 - t760;
        const Q t762 = c[1] * t620;
        const Q t763 = c[2] * t690;
        const Q t764 = t762 + t763;
        const Q t765 = c[5] * t659;
        const Q t766 = t764 - t765;
        const Q t767 = c[3] * t619;
        const Q t768 = c[4] * t689;
        const Q t769 = t767 - t768;
        const Q t770 = c[0] * t658;
        const Q t771 = t769 - t770;
        const Q t772 = t771 + t705;
        const Q t773 = c[2] * t620;
        const Q t774 = c[5] * t690;
        const Q t775 = t773 - t774;
        const Q t776 = c[1] * t659;
        const Q t777 = t775 - t776;
        const Q t778 = shuffled<0, 1, 6, 7>(t583, t598);
        // complex block of 59
        const Q t779 = Q(c[34], c[34], c[45], c[45]) * t778;
        const Q t780 = shuffled<0, 1, 6, 7>(t580, t601);
        const Q t781 = Q(-c[36], -c[36], c[43], c[43]) * t780;
        const Q t782 = t779 + t781;
        const Q t783 = shuffled<0, 1, 6, 7>(t605, t587);
        const Q t784 = Q(c[48], c[48], c[41], -c[41]) * t783;
        const Q t785 = shuffled<0, 1, 6, 7>(t608, t590);
        const Q t786 = Q(c[46], c[46], c[39], -c[39]) * t785;
        const Q t787 = t784 - t786;
        const Q t788 = flipped<0, 0, 1, 0>(t782);
        // real block of 7
        const Q t789 = t787 - t788;
        const Q t790 = t787 + t788;
        const Q t791 = shuffled<0, 1, 6, 7>(t669, t680);
        // complex block of 59
        const Q t792 = Q(c[70], c[70], c[81], c[81]) * t791;
        const Q t793 = shuffled<0, 1, 6, 7>(t666, t682);
        const Q t794 = Q(c[72], c[72], c[79], c[79]) * t793;
        const Q t795 = t792 + t794;
        const Q t796 = shuffled<0, 1, 6, 7>(t682, t666);
        const Q t797 = Q(c[78], c[78], c[73], c[73]) * t796;
        const Q t798 = shuffled<0, 1, 6, 7>(t680, t669);
        const Q t799 = Q(-c[80], -c[80], c[71], c[71]) * t798;
        const Q t800 = t797 + t799;
        const Q t801 = Q(c[88], c[88], c[89], c[89]) * t698;
        const Q t802 = Q(-c[86], -c[86], c[87], c[87]) * t700;
        const Q t803 = t801 + t802;
        const Q t804 = flipped<0, 0, 0, 1>(t795);
        const Q t805 = flipped<0, 0, 0, 1>(t800);
        // real block of 7
        const Q t806 = t804 - t805;
        const Q t807 = t789 + t806;
        const Q t808 = t800 + t795;
        const Q t809 = Q(c[4], c[4], c[4], -c[4]) * t789;
        const Q t810 = t803 - t809;
        const Q t811 = Q(c[0], c[0], c[0], -c[0]) * t789;
        const Q t812 = t803 - t811;
        const Q t813 = shuffled<0, 1, 6, 7>(t662, t625);
        // complex block of 59
        const Q t814 = Q(c[66], c[66], c[51], -c[51]) * t813;
        const Q t815 = shuffled<0, 1, 6, 7>(t660, t622);
        const Q t816 = Q(c[68], c[68], c[53], -c[53]) * t815;
        const Q t817 = t814 - t816;
        const Q t818 = shuffled<0, 1, 6, 7>(t641, t662);
        const Q t819 = Q(c[64], c[64], c[67], -c[67]) * t818;
        const Q t820 = shuffled<0, 1, 6, 7>(t644, t660);
        const Q t821 = Q(c[62], c[62], c[69], -c[69]) * t820;
        const Q t822 = t819 - t821;
        // real block of 7
        const Q t823 = t822 - t817;
        const Q t824 = t822 + t817;
        const Q t825 = shuffled<0, 1, 6, 7>(t587, t580);
        // complex block of 59
        const Q t826 = Q(c[40], c[40], c[37], c[37]) * t825;
        const Q t827 = shuffled<0, 1, 6, 7>(t590, t583);
        const Q t828 = Q(-c[38], -c[38], c[35], c[35]) * t827;
        const Q t829 = t826 + t828;
        const Q t830 = shuffled<0, 1, 6, 7>(t695, t692);
        const Q t831 = Q(c[82], c[82], -c[85], c[85]) * t830;
        const Q t832 = shuffled<0, 1, 6, 7>(t692, t695);
        const Q t833 = Q(c[84], c[84], c[83], -c[83]) * t832;
        const Q t834 = t831 + t833;
        const Q t835 = flipped<0, 0, 0, 1>(t834);
        // real block of 7
        const Q t836 = t829 + t835;
        const Q t837 = shuffled<0, 1, 6, 7>(t677, t675);
        // complex block of 59
        const Q t838 = Q(c[74], c[74], c[77], c[77]) * t837;
        const Q t839 = shuffled<0, 1, 6, 7>(t675, t677);
        const Q t840 = Q(-c[76], -c[76], c[75], c[75]) * t839;
        const Q t841 = t838 + t840;
        const Q t842 = shuffled<0, 1, 6, 7>(t601, t608);
        const Q t843 = Q(c[42], c[42], c[47], -c[47]) * t842;
        const Q t844 = shuffled<0, 1, 6, 7>(t598, t605);
        const Q t845 = Q(c[44], c[44], c[49], -c[49]) * t844;
        const Q t846 = t843 - t845;
        const Q t847 = flipped<0, 0, 0, 1>(t846);
        // real block of 7
        const Q t848 = t841 + t847;
        const Q t849 = flipped<0, 0, 1, 0>(t841);
        const Q t850 = flipped<1, 1, 0, 1>(t847);
        const Q t851 = t849 + t850;
        // complex block of 59
        const Q t852 = Q(c[58], c[58], -c[59], c[59]) * t637;
        const Q t853 = Q(c[60], c[60], c[61], -c[61]) * t634;
        const Q t854 = t852 + t853;
        const Q t855 = flipped<0, 0, 1, 0>(t848);
        // real block of 7
        const Q t856 = t823 + t855;
        const Q t857 = flipped<0, 0, 0, 1>(t829);
        const Q t858 = t834 - t857;
        const Q t859 = Q(c[5], c[5], -c[5], c[5]) * t824;
        const Q t860 = c[2] * t836;
        const Q t861 = c[1] * t851;
        const Q t862 = shuffled<0, 5, 2, 7>(t860, t861);
        const Q t863 = shuffled<0, 1, 6, 7>(t860, t862);
        const Q t864 = t859 + t863;
        const Q t865 = Q(-c[4], -c[4], c[4], c[4]) * t823;
        const Q t866 = t854 + t865;
        const Q t867 = flipped<0, 0, 1, 0>(t866);
        const Q t868 = Q(-c[0], -c[0], c[0], c[0]) * t848;
        const Q t869 = t867 + t868;
        const Q t870 = Q(-c[2], -c[2], c[2], c[2]) * t851;
        const Q t871 = flipped<1, 1, 0, 0>(t870);
        const Q t872 = c[5] * t836;
        const Q t873 = shuffled<0, 5, 2, 7>(t871, t872);
        const Q t874 = shuffled<0, 1, 6, 7>(t870, t873);
        const Q t875 = Q(c[1], c[1], c[1], -c[1]) * t824;
        const Q t876 = t874 + t875;
        const Q t877 = Q(-c[0], -c[0], c[0], c[0]) * t823;
        const Q t878 = t854 + t877;
        const Q t879 = c[3] * t848;
        const Q t880 = flipped<0, 0, 0, 1>(t878);
        const Q t881 = t879 + t880;
        const Q t882 = c[5] * t851;
        const Q t883 = c[2] * t824;
        const Q t884 = flipped<0, 0, 1, 0>(t883);
        const Q t885 = c[1] * t836;
        const Q t886 = shuffled<0, 5, 2, 7>(t884, t885);
        const Q t887 = shuffled<0, 1, 6, 7>(t883, t886);
        const Q t888 = t882 + t887;
        const Q t889 = c[3] * t823;
        const Q t890 = Q(c[4], c[4], -c[4], c[4]) * t848;
        const Q t891 = t889 - t890;
        const Q t892 = shuffled<0, 1, 6, 7>(t625, t644);
        // complex block of 59
        const Q t893 = Q(c[50], c[50], -c[63], c[63]) * t892;
        const Q t894 = shuffled<0, 1, 6, 7>(t622, t641);
        const Q t895 = Q(c[52], c[52], c[65], -c[65]) * t894;
        const Q t896 = t893 + t895;
        const Q t897 = shuffled<0, 1, 6, 7>(t630, t628);
        const Q t898 = Q(c[54], c[54], c[57], c[57]) * t897;
        const Q t899 = shuffled<0, 1, 6, 7>(t628, t630);
        const Q t900 = Q(-c[56], -c[56], c[55], c[55]) * t899;
        const Q t901 = t898 + t900;
        const Q t902 = flipped<0, 0, 0, 1>(t901);
        // real block of 7
        const Q t903 = t896 + t902;
        const Q t904 = flipped<1, 1, 0, 1>(t902);
        const Q t905 = flipped<0, 0, 1, 0>(t896);
        const Q t906 = t904 + t905;
        // real block of 7
        const Q t907 = t856 + t858;
        const Q t908 = flipped<0, 0, 1, 1>(t854);
        const Q t909 = t907 + t908;
        const Q t910 = flipped<1, 1, 0, 0>(t903);
        // real block of 7
        const Q t911 = t807 + t910;
        const Q t912 = flipped<0, 0, 0, 1>(t803);
        const Q t913 = t911 + t912;
        const Q t914 = shuffled<0, 5, 2, 7>(t861, t860);
        const Q t915 = shuffled<0, 1, 6, 7>(t861, t914);
        const Q t916 = flipped<0, 0, 0, 1>(t915);
        // real block of 7
        const Q t917 = t864 - t916;
        const Q t918 = c[3] * t858;
        const Q t919 = flipped<0, 0, 0, 1>(t869);
        const Q t920 = t918 + t919;
        // skew block of 14
        const Q t921 = c[2] * t917;
        const Q t922 = Q(c[3], c[3], c[3], -c[3]) * t920;
        const Q t923 = t921 + t922;
        const Q t924 = c[2] * t920;
        const Q t925 = Q(c[3], c[3], c[3], -c[3]) * t917;
        const Q t926 = t924 - t925;
        // real block of 7
        const Q t927 = Q(-c[1], -c[1], c[1], c[1]) * t808;
        const Q t928 = flipped<1, 1, 0, 0>(t927);
        const Q t929 = c[2] * t906;
        const Q t930 = shuffled<0, 5, 2, 7>(t928, t929);
        const Q t931 = shuffled<0, 1, 6, 7>(t927, t930);
        const Q t932 = Q(c[5], c[5], -c[5], -c[5]) * t790;
        const Q t933 = t931 + t932;
        const Q t934 = shuffled<0, 5, 2, 7>(t929, t928);
        const Q t935 = shuffled<0, 1, 6, 7>(t929, t934);
        const Q t936 = t933 - t935;
        const Q t937 = Q(c[0], c[0], c[0], -c[0]) * t806;
        const Q t938 = t810 - t937;
        const Q t939 = Q(-c[3], -c[3], c[3], c[3]) * t903;
        const Q t940 = flipped<0, 0, 0, 1>(t938);
        const Q t941 = t939 + t940;
        const Q t942 = flipped<0, 0, 0, 1>(t936);
        // complex block of 2
        const Q t943 = t923 - t942;
        const Q t944 = t941 - t926;
        const Q t945 = t923 + t942;
        const Q t946 = t941 + t926;
        // real block of 7
        const Q t947 = c[1] * t790;
        const Q t948 = c[5] * t906;
        const Q t949 = shuffled<0, 5, 2, 7>(t948, t947);
        const Q t950 = shuffled<0, 1, 6, 7>(t947, t949);
        const Q t951 = c[2] * t808;
        const Q t952 = shuffled<0, 1, 6, 7>(t948, t951);
        const Q t953 = t950 + t952;
        const Q t954 = shuffled<0, 5, 2, 7>(t947, t948);
        const Q t955 = shuffled<0, 1, 6, 7>(t951, t954);
        const Q t956 = flipped<0, 0, 0, 1>(t955);
        const Q t957 = t953 - t956;
        const Q t958 = shuffled<0, 5, 2, 7>(t872, t871);
        const Q t959 = shuffled<0, 1, 6, 7>(t872, t958);
        const Q t960 = flipped<0, 0, 1, 0>(t959);
        // real block of 7
        const Q t961 = t876 - t960;
        const Q t962 = Q(c[4], c[4], -c[4], c[4]) * t858;
        const Q t963 = t881 - t962;
        // skew block of 14
        const Q t964 = c[5] * t961;
        const Q t965 = c[4] * t963;
        const Q t966 = t964 + t965;
        const Q t967 = Q(c[5], c[5], -c[5], c[5]) * t963;
        const Q t968 = Q(c[4], c[4], -c[4], c[4]) * t961;
        const Q t969 = t967 - t968;
        // real block of 7
        const Q t970 = c[3] * t806;
        const Q t971 = flipped<0, 0, 0, 1>(t812);
        const Q t972 = t970 + t971;
        const Q t973 = Q(c[4], c[4], -c[4], -c[4]) * t903;
        const Q t974 = t972 + t973;
        const Q t975 = flipped<0, 0, 1, 0>(t957);
        const Q t976 = flipped<0, 0, 0, 1>(t966);
        // complex block of 2
        const Q t977 = t975 + t976;
        const Q t978 = t974 + t969;
        const Q t979 = flipped<1, 1, 1, 0>(t975);
        const Q t980 = t979 + t966;
        const Q t981 = t974 - t969;
        // real block of 7
        const Q t982 = c[5] * t808;
        const Q t983 = c[1] * t906;
        const Q t984 = shuffled<0, 5, 2, 7>(t983, t982);
        const Q t985 = shuffled<0, 1, 6, 7>(t982, t984);
        const Q t986 = Q(c[2], c[2], -c[2], -c[2]) * t790;
        const Q t987 = t985 + t986;
        const Q t988 = shuffled<0, 5, 2, 7>(t982, t983);
        const Q t989 = shuffled<0, 1, 6, 7>(t983, t988);
        const Q t990 = flipped<0, 0, 1, 1>(t989);
        const Q t991 = t987 + t990;
        const Q t992 = shuffled<0, 5, 2, 7>(t885, t884);
        const Q t993 = shuffled<0, 1, 6, 7>(t885, t992);
        // real block of 7
        const Q t994 = t888 - t993;
        const Q t995 = c[0] * t858;
        const Q t996 = t891 - t995;
        const Q t997 = t996 + t908;
        // real block of 7
        const Q t998 = c[3] * t789;
        const Q t999 = c[4] * t806;
        const Q t1000 = t998 - t999;
        const Q t1001 = Q(c[0], c[0], -c[0], -c[0]) * t903;
        const Q t1002 = t1000 + t1001;
        // skew block of 14
        const Q t1003 = c[1] * t994;
        const Q t1004 = c[0] * t997;
        const Q t1005 = t1003 + t1004;
        // complex block of 2
        const Q t1006 = t991 + t1005;
        const Q t1007 = t1005 - t991;
        // real block of 7
        const Q t1008 = t1002 + t912;
        // skew block of 14
        const Q t1009 = c[1] * t997;
        const Q t1010 = c[0] * t994;
        const Q t1011 = t1009 - t1010;
        // complex block of 2
        const Q t1012 = t1008 + t1011;
        const Q t1013 = t1008 - t1011;
        // spectrum block of 29, multiplier 2
        const Q t1014 = c[9] * t713;
        const Q t1015 = Q(c[8], c[8], -c[8], c[8]) * t719;
        const Q t1016 = t1014 - t1015;
        const Q t1017 = c[10] * t725;
        const Q t1018 = c[11] * t730;
        const Q t1019 = t1017 - t1018;
        const Q t1020 = c[33] * t708;
        const P t1021 = part<1>(t1020);
        const V t1022 = part<0>(t1021);
        // spectrum block of 7, multiplier 4
        const Q t1023 = c[3] * t1016;
        const P t1024 = part<1>(t1023);
        const V t1025 = part<0>(t1024);
        // spectrum block of 7, multiplier 4
        const V t1026 = t1022 + t1025;
        // spectrum block of 7, multiplier 4
        const Q t1027 = c[4] * t1016;
        const P t1028 = part<1>(t1027);
        const V t1029 = part<0>(t1028);
        const P t1030 = part<1>(t1019);
        // spectrum block of 7, multiplier 4
        const P t1031 = c[0] * t1030;
        const V t1032 = part<0>(t1031);
        const V t1033 = t1029 - t1032;
        // spectrum block of 7, multiplier 4
        const Q t1034 = c[0] * t1016;
        const P t1035 = part<1>(t1034);
        const V t1036 = part<0>(t1035);
        // spectrum block of 7, multiplier 4
        const P t1037 = c[3] * t1030;
        const V t1038 = part<0>(t1037);
        const V t1039 = t1036 + t1038;
        const P t1040 = part<0>(t1023);
        const P t1041 = part<0>(t1019);
        // spectrum block of 7, multiplier 4
        const P t1042 = c[4] * t1041;
        const P t1043 = t1040 - t1042;
        const P t1044 = part<0>(t1020);
        const P t1045 = part<0>(t1027);
        const P t1046 = t1044 + t1045;
        const P t1047 = part<0>(t1034);
        const P t1048 = t1044 + t1047;
        const Q t1049 = flipped<0, 0, 1, 0>(t1016);
        const Q t1050 = t1049 + t1019;
        const V t1051 = part<1>(t1024);
        // spectrum block of 7, multiplier 4
        const P t1052 = c[4] * t1030;
        const V t1053 = part<1>(t1052);
        // spectrum block of 7, multiplier 4
        const V t1054 = t1051 - t1053;
        const V t1055 = part<1>(t1021);
        const V t1056 = part<1>(t1028);
        const V t1057 = t1055 + t1056;
        const V t1058 = part<1>(t1035);
        const V t1059 = t1055 + t1058;
        // spectrum block of 29, multiplier 2
        const Q t1060 = c[18] * t736;
        const Q t1061 = Q(c[19], c[19], -c[19], c[19]) * t741;
        const Q t1062 = t1060 + t1061;
        const V t1063 = part<0>(t1052);
        // spectrum block of 7, multiplier 4
        const V t1064 = t1026 + t1063;
        const P t1065 = part<1>(t1062);
        const P t1066 = c[0] * t1065;
        const V t1067 = part<0>(t1066);
        const V t1068 = t1064 + t1067;
        const P t1069 = c[3] * t1065;
        const V t1070 = part<0>(t1069);
        const V t1071 = t1033 + t1070;
        const V t1072 = t1071 - t1022;
        const P t1073 = c[4] * t1065;
        const V t1074 = part<0>(t1073);
        const V t1075 = t1039 - t1074;
        // spectrum block of 7, multiplier 4
        const P t1076 = c[3] * t1041;
        const P t1077 = t1076 - t1048;
        const V t1078 = part<1>(t1037);
        // spectrum block of 7, multiplier 4
        const V t1079 = t1078 - t1059;
        const P t1080 = joined(t1075, t1079);
        const Q t1081 = joined(t1077, t1080);
        const P t1082 = part<0>(t1062);
        // spectrum block of 7, multiplier 4
        const P t1083 = c[4] * t1082;
        const P t1084 = shuffled<0, 3>(t1021, t1073);
        const Q t1085 = joined(t1083, t1084);
        const Q t1086 = t1081 - t1085;
        const P t1087 = c[0] * t1082;
        const P t1088 = t1043 - t1087;
        const P t1089 = t1088 - t1044;
        const P t1090 = c[0] * t1041;
        const P t1091 = t1046 + t1090;
        const P t1092 = c[3] * t1082;
        const P t1093 = t1092 - t1091;
        const Q t1094 = t1050 + t1062;
        const Q t1095 = t1094 - t1020;
        const V t1096 = part<1>(t1066);
        // spectrum block of 7, multiplier 4
        const V t1097 = t1054 - t1096;
        const V t1098 = t1097 - t1055;
        const V t1099 = part<1>(t1031);
        const V t1100 = t1057 + t1099;
        const V t1101 = part<1>(t1069);
        const V t1102 = t1101 - t1100;
        // spectrum block of 29, multiplier 2
        const Q t1103 = c[10] * t730;
        const Q t1104 = c[11] * t725;
        const Q t1105 = t1103 + t1104;
        const Q t1106 = c[8] * t713;
        const Q t1107 = Q(c[9], c[9], -c[9], c[9]) * t719;
        const Q t1108 = t1106 + t1107;
        const Q t1109 = c[19] * t736;
        const Q t1110 = Q(c[18], c[18], -c[18], c[18]) * t741;
        const Q t1111 = t1109 - t1110;
        // spectrum block of 7, multiplier 4
        const Q t1112 = c[5] * t1105;
        const P t1113 = part<1>(t1112);
        const V t1114 = part<0>(t1113);
        const Q t1115 = c[2] * t1108;
        const P t1116 = part<1>(t1115);
        const V t1117 = part<0>(t1116);
        // spectrum block of 7, multiplier 4
        const V t1118 = t1114 - t1117;
        const P t1119 = part<0>(t1115);
        const P t1120 = part<0>(t1112);
        // spectrum block of 7, multiplier 4
        const P t1121 = t1119 + t1120;
        const V t1122 = part<1>(t1116);
        const V t1123 = part<1>(t1113);
        // spectrum block of 7, multiplier 4
        const V t1124 = t1122 + t1123;
        // spectrum block of 7, multiplier 4
        const Q t1125 = c[1] * t1111;
        const P t1126 = part<1>(t1125);
        const V t1127 = part<0>(t1126);
        // spectrum block of 7, multiplier 4
        const V t1128 = t1118 - t1127;
        const P t1129 = part<0>(t1125);
        // spectrum block of 7, multiplier 4
        const P t1130 = t1121 - t1129;
        const V t1131 = part<1>(t1126);
        // spectrum block of 7, multiplier 4
        const V t1132 = t1124 - t1131;
        // spectrum block of 7, multiplier 4
        const Q t1133 = c[5] * t1108;
        const P t1134 = part<1>(t1133);
        const V t1135 = part<0>(t1134);
        const Q t1136 = c[1] * t1105;
        const P t1137 = part<1>(t1136);
        const V t1138 = part<0>(t1137);
        // spectrum block of 7, multiplier 4
        const V t1139 = t1135 + t1138;
        const P t1140 = part<0>(t1133);
        const P t1141 = part<0>(t1136);
        // spectrum block of 7, multiplier 4
        const P t1142 = t1140 - t1141;
        const V t1143 = part<1>(t1134);
        const V t1144 = part<1>(t1137);
        // spectrum block of 7, multiplier 4
        const V t1145 = t1143 - t1144;
        // spectrum block of 7, multiplier 4
        const Q t1146 = c[2] * t1111;
        const P t1147 = part<1>(t1146);
        const V t1148 = part<0>(t1147);
        // spectrum block of 7, multiplier 4
        const V t1149 = t1148 - t1139;
        const P t1150 = part<0>(t1146);
        // spectrum block of 7, multiplier 4
        const P t1151 = t1142 + t1150;
        const V t1152 = part<1>(t1147);
        // spectrum block of 7, multiplier 4
        const V t1153 = t1145 + t1152;
        // spectrum block of 7, multiplier 4
        const Q t1154 = c[1] * t1108;
        const Q t1155 = Q(c[2], c[2], -c[2], c[2]) * t1105;
        const Q t1156 = t1154 - t1155;
        const Q t1157 = Q(c[5], c[5], -c[5], c[5]) * t1111;
        const Q t1158 = t1156 - t1157;
        // spectrum block of 29, multiplier 2
        const Q t1159 = c[31] * t909;
        const Q t1160 = c[30] * t913;
        const Q t1161 = t1159 + t1160;
        const Q t1162 = c[25] * t943;
        const Q t1163 = Q(c[24], c[24], c[24], -c[24]) * t944;
        const Q t1164 = t1162 + t1163;
        const Q t1165 = c[23] * t945;
        const Q t1166 = Q(c[22], c[22], c[22], -c[22]) * t946;
        const Q t1167 = t1165 + t1166;
        // complex block of 7, multiplier 4
        const Q t1168 = t1164 + t1167;
        const Q t1169 = flipped<0, 0, 0, 1>(t1167);
        const Q t1170 = flipped<0, 0, 0, 1>(t1164);
        const Q t1171 = t1169 - t1170;
        // spectrum block of 29, multiplier 2
        const Q t1172 = c[15] * t977;
        const Q t1173 = Q(-c[14], -c[14], c[14], c[14]) * t978;
        const Q t1174 = t1172 + t1173;
        const Q t1175 = c[17] * t980;
        const Q t1176 = Q(c[16], c[16], -c[16], c[16]) * t981;
        const Q t1177 = t1175 - t1176;
        const Q t1178 = flipped<0, 0, 0, 1>(t1177);
        // complex block of 7, multiplier 4
        const Q t1179 = t1174 + t1178;
        const Q t1180 = shuffled<0, 1, 6, 7>(t1178, t1174);
        const Q t1181 = shuffled<0, 1, 6, 7>(t1174, t1178);
        const Q t1182 = t1180 - t1181;
        // spectrum block of 29, multiplier 2
        const Q t1183 = c[26] * t1006;
        const Q t1184 = c[27] * t1012;
        const Q t1185 = t1183 + t1184;
        const Q t1186 = c[29] * t1013;
        const Q t1187 = c[28] * t1007;
        const Q t1188 = t1186 - t1187;
        // complex block of 7, multiplier 4
        const Q t1189 = t1185 + t1188;
        const P t1190 = part<0>(t1161);
        const Q t1191 = c[3] * t1168;
        const P t1192 = part<0>(t1191);
        const P t1193 = t1190 + t1192;
        const Q t1194 = c[4] * t1179;
        const P t1195 = part<0>(t1194);
        const P t1196 = t1195 - t1193;
        const P t1197 = part<1>(t1191);
        const P t1198 = part<1>(t1161);
        const P t1199 = part<1>(t1194);
        const P t1200 = shuffled<0, 3>(t1198, t1199);
        const P t1201 = flipped<0, 1>(t1200);
        // complex block of 7, multiplier 4
        const P t1202 = t1197 + t1201;
        // complex block of 7, multiplier 4
        const Q t1203 = c[0] * t1189;
        const P t1204 = part<1>(t1203);
        const P t1205 = shuffled<0, 3>(t1199, t1204);
        // complex block of 7, multiplier 4
        const P t1206 = t1202 + t1205;
        // complex block of 7, multiplier 4
        const Q t1207 = c[2] * t1171;
        const P t1208 = part<0>(t1207);
        const Q t1209 = c[5] * t1182;
        const P t1210 = part<0>(t1209);
        const P t1211 = t1208 - t1210;
        const P t1212 = part<1>(t1207);
        const P t1213 = part<1>(t1209);
        // complex block of 7, multiplier 4
        const P t1214 = t1212 - t1213;
        // complex block of 7, multiplier 4
        const Q t1215 = t1188 - t1185;
        const Q t1216 = c[4] * t1168;
        const P t1217 = part<0>(t1216);
        const Q t1218 = c[0] * t1179;
        const P t1219 = part<0>(t1218);
        const P t1220 = t1217 + t1219;
        const P t1221 = part<1>(t1218);
        const P t1222 = shuffled<0, 3>(t1221, t1198);
        const P t1223 = flipped<1, 0>(t1222);
        const P t1224 = part<1>(t1216);
        // complex block of 7, multiplier 4
        const P t1225 = t1223 + t1224;
        // complex block of 7, multiplier 4
        const Q t1226 = c[3] * t1189;
        const P t1227 = part<0>(t1226);
        const P t1228 = t1220 - t1227;
        const P t1229 = part<1>(t1226);
        const P t1230 = shuffled<0, 3>(t1229, t1221);
        const P t1231 = flipped<1, 0>(t1230);
        // complex block of 7, multiplier 4
        const P t1232 = t1225 + t1231;
        // complex block of 7, multiplier 4
        const Q t1233 = c[5] * t1171;
        const P t1234 = part<0>(t1233);
        const Q t1235 = c[1] * t1182;
        const P t1236 = part<0>(t1235);
        const P t1237 = t1234 + t1236;
        const P t1238 = part<1>(t1233);
        const P t1239 = part<1>(t1235);
        // complex block of 7, multiplier 4
        const P t1240 = t1238 + t1239;
        // complex block of 7, multiplier 4
        const Q t1241 = c[0] * t1168;
        const P t1242 = part<0>(t1241);
        const Q t1243 = c[3] * t1179;
        const P t1244 = part<0>(t1243);
        const P t1245 = t1242 - t1244;
        const P t1246 = part<1>(t1243);
        const P t1247 = shuffled<0, 3>(t1246, t1223);
        const P t1248 = part<1>(t1241);
        // complex block of 7, multiplier 4
        const P t1249 = t1247 + t1248;
        // complex block of 7, multiplier 4
        const Q t1250 = c[4] * t1189;
        const P t1251 = part<0>(t1250);
        const P t1252 = t1245 + t1251;
        const P t1253 = part<1>(t1250);
        const P t1254 = shuffled<0, 3>(t1253, t1246);
        const P t1255 = flipped<0, 1>(t1249);
        // complex block of 7, multiplier 4
        const P t1256 = t1254 + t1255;
        const Q t1257 = flipped<0, 0, 1, 0>(t1168);
        // complex block of 7, multiplier 4
        const Q t1258 = t1257 + t1179;
        const Q t1259 = flipped<0, 0, 1, 1>(t1189);
        const Q t1260 = t1258 + t1259;
        const Q t1261 = c[1] * t1171;
        const Q t1262 = c[2] * t1182;
        const Q t1263 = t1261 + t1262;
        // spectrum block of 29, multiplier 2
        const Q t1264 = c[25] * t944;
        const Q t1265 = Q(c[24], c[24], c[24], -c[24]) * t943;
        const Q t1266 = t1264 - t1265;
        const Q t1267 = c[23] * t946;
        const Q t1268 = Q(c[22], c[22], c[22], -c[22]) * t945;
        const Q t1269 = t1267 - t1268;
        // complex block of 7, multiplier 4
        const Q t1270 = t1266 + t1269;
        const Q t1271 = t1266 - t1269;
        // spectrum block of 29, multiplier 2
        const Q t1272 = c[14] * t977;
        const Q t1273 = Q(c[15], c[15], -c[15], -c[15]) * t978;
        const Q t1274 = t1272 + t1273;
        const Q t1275 = Q(c[17], c[17], -c[17], c[17]) * t981;
        const Q t1276 = c[16] * t980;
        const Q t1277 = t1275 + t1276;
        const Q t1278 = flipped<0, 0, 0, 1>(t1277);
        // complex block of 7, multiplier 4
        const Q t1279 = t1274 + t1278;
        const Q t1280 = shuffled<0, 1, 6, 7>(t1278, t1274);
        const Q t1281 = shuffled<0, 1, 6, 7>(t1274, t1278);
        const Q t1282 = t1280 - t1281;
        // spectrum block of 29, multiplier 2
        const Q t1283 = c[27] * t1006;
        const Q t1284 = c[26] * t1012;
        const Q t1285 = t1283 - t1284;
        const Q t1286 = c[28] * t1013;
        const Q t1287 = c[29] * t1007;
        const Q t1288 = t1286 + t1287;
        // complex block of 7, multiplier 4
        const Q t1289 = t1285 + t1288;
        // spectrum block of 29, multiplier 2
        const Q t1290 = c[31] * t913;
        const Q t1291 = c[30] * t909;
        const Q t1292 = t1290 - t1291;
        // complex block of 7, multiplier 4
        const Q t1293 = c[3] * t1270;
        const P t1294 = part<0>(t1293);
        const Q t1295 = c[4] * t1279;
        const P t1296 = part<0>(t1295);
        const P t1297 = t1294 + t1296;
        const P t1298 = part<1>(t1293);
        const P t1299 = part<1>(t1295);
        // complex block of 7, multiplier 4
        const P t1300 = t1298 - t1299;
        // complex block of 7, multiplier 4
        const Q t1301 = c[0] * t1289;
        const P t1302 = part<0>(t1301);
        const P t1303 = t1297 - t1302;
        const P t1304 = part<1>(t1301);
        // complex block of 7, multiplier 4
        const P t1305 = t1300 - t1304;
        // complex block of 7, multiplier 4
        const Q t1306 = c[2] * t1271;
        const P t1307 = part<0>(t1306);
        const Q t1308 = c[5] * t1282;
        const P t1309 = part<0>(t1308);
        const P t1310 = t1307 - t1309;
        const P t1311 = part<1>(t1306);
        const P t1312 = part<1>(t1308);
        // complex block of 7, multiplier 4
        const P t1313 = t1311 - t1312;
        // complex block of 7, multiplier 4
        const Q t1314 = t1285 - t1288;
        const P t1315 = part<0>(t1292);
        const Q t1316 = c[4] * t1270;
        const P t1317 = part<0>(t1316);
        const P t1318 = t1315 - t1317;
        const P t1319 = part<1>(t1292);
        const P t1320 = part<1>(t1316);
        // complex block of 7, multiplier 4
        const P t1321 = t1319 - t1320;
        // complex block of 7, multiplier 4
        const Q t1322 = c[0] * t1279;
        const P t1323 = part<0>(t1322);
        const P t1324 = t1318 + t1323;
        const P t1325 = part<1>(t1322);
        // complex block of 7, multiplier 4
        const P t1326 = t1321 - t1325;
        // complex block of 7, multiplier 4
        const Q t1327 = c[5] * t1271;
        const P t1328 = part<0>(t1327);
        const Q t1329 = c[1] * t1282;
        const P t1330 = part<0>(t1329);
        const P t1331 = t1328 + t1330;
        const P t1332 = part<1>(t1327);
        const P t1333 = part<1>(t1329);
        // complex block of 7, multiplier 4
        const P t1334 = t1332 + t1333;
        const Q t1335 = flipped<1, 1, 0, 0>(t1279);
        // complex block of 7, multiplier 4
        const Q t1336 = t1270 + t1335;
        const Q t1337 = t1336 + t1289;
        const Q t1338 = c[0] * t1270;
        const Q t1339 = t1292 - t1338;
        const Q t1340 = Q(-c[3], -c[3], c[3], c[3]) * t1279;
        const Q t1341 = t1339 + t1340;
        const Q t1342 = c[1] * t1271;
        const Q t1343 = c[2] * t1282;
        const Q t1344 = t1342 + t1343;
        const P t1345 = part<1>(t281);
        const P t1346 = shuffled<1, 0>(t1345);
        // complex block of 59
        const P t1347 = c[91] * t1346;
        const Q t1348 = joined(t578, t1347);
        // spectrum block of 29, multiplier 2
        const Q t1349 = Q(c[32], c[32], c[32], -c[32]) * t744;
        const Q t1350 = t1348 - t1349;
        const Q t1351 = c[6] * t750;
        const Q t1352 = c[7] * t755;
        const Q t1353 = t1351 - t1352;
        const Q t1354 = c[12] * t761;
        const Q t1355 = c[13] * t766;
        const Q t1356 = t1354 - t1355;
        // spectrum block of 7, multiplier 4
        const Q t1357 = t1353 + t1356;
        const Q t1358 = c[3] * t1353;
        const Q t1359 = c[4] * t1356;
        const Q t1360 = t1358 - t1359;
        const Q t1361 = Q(c[4], c[4], c[4], -c[4]) * t1353;
        const Q t1362 = t1350 - t1361;
        const Q t1363 = Q(c[0], c[0], c[0], -c[0]) * t1353;
        const Q t1364 = t1350 - t1363;
        // spectrum block of 29, multiplier 2
        const Q t1365 = c[20] * t772;
        const Q t1366 = c[21] * t777;
        const Q t1367 = t1365 + t1366;
        // spectrum block of 7, multiplier 4
        const Q t1368 = t1357 + t1367;
        const Q t1369 = flipped<0, 0, 0, 1>(t1350);
        const Q t1370 = t1368 + t1369;
        const Q t1371 = c[0] * t1367;
        const Q t1372 = t1360 - t1371;
        const Q t1373 = t1372 + t1369;
        const Q t1374 = Q(c[0], c[0], c[0], -c[0]) * t1356;
        const Q t1375 = t1362 - t1374;
        const Q t1376 = c[3] * t1367;
        const Q t1377 = flipped<0, 0, 0, 1>(t1375);
        const Q t1378 = t1376 + t1377;
        const Q t1379 = c[3] * t1356;
        const Q t1380 = flipped<0, 0, 0, 1>(t1364);
        const Q t1381 = t1379 + t1380;
        const Q t1382 = c[4] * t1367;
        const Q t1383 = t1381 - t1382;
        // spectrum block of 29, multiplier 2
        const Q t1384 = c[6] * t755;
        const Q t1385 = c[7] * t750;
        const Q t1386 = t1384 + t1385;
        const Q t1387 = c[12] * t766;
        const Q t1388 = c[13] * t761;
        const Q t1389 = t1387 + t1388;
        const Q t1390 = c[20] * t777;
        const Q t1391 = c[21] * t772;
        const Q t1392 = t1390 - t1391;
        // spectrum block of 7, multiplier 4
        const Q t1393 = c[5] * t1389;
        const Q t1394 = c[2] * t1386;
        const Q t1395 = t1393 - t1394;
        const Q t1396 = c[1] * t1392;
        const Q t1397 = t1395 + t1396;
        const Q t1398 = c[5] * t1386;
        const Q t1399 = c[1] * t1389;
        const Q t1400 = t1398 + t1399;
        const Q t1401 = c[2] * t1392;
        const Q t1402 = t1400 + t1401;
        const Q t1403 = c[1] * t1386;
        const Q t1404 = c[2] * t1389;
        const Q t1405 = t1403 + t1404;
        const Q t1406 = c[5] * t1392;
        const Q t1407 = t1406 - t1405;
        const Q t1408 = flipped<0, 0, 0, 1>(t1348);
        // spectrum block of 29, multiplier 2
        const Q t1409 = t744 + t1408;
        // spectrum block of 7, multiplier 4
        const V t1410 = t1068 + t1128;
        // spectrum block of 7, multiplier 4
        const P t1411 = t1089 - t1130;
        // spectrum block of 7, multiplier 4
        const Q t1412 = t1373 - t1397;
        // spectrum block of 7, multiplier 4
        const V t1413 = t1098 - t1132;
        const V t1414 = flipped<1>(t1410);
        const P t1415 = joined(t1414, t1413);
        const Q t1416 = joined(t1411, t1415);
        // spectrum block of 2
        const Q t1417 = t1412 + t1416;
        const Q t1418 = t1412 - t1416;
        // spectrum block of 7, multiplier 4
        const V t1419 = t1128 - t1068;
        // spectrum block of 7, multiplier 4
        const P t1420 = t1089 + t1130;
        // spectrum block of 7, multiplier 4
        const Q t1421 = t1373 + t1397;
        // spectrum block of 7, multiplier 4
        const V t1422 = t1098 + t1132;
        const P t1423 = joined(t1419, t1422);
        const Q t1424 = joined(t1420, t1423);
        // spectrum block of 2
        const Q t1425 = t1421 + t1424;
        const Q t1426 = t1421 - t1424;
        // spectrum block of 7, multiplier 4
        const V t1427 = t1072 - t1149;
        // spectrum block of 7, multiplier 4
        const P t1428 = t1093 - t1151;
        // spectrum block of 7, multiplier 4
        const Q t1429 = t1378 + t1402;
        // spectrum block of 7, multiplier 4
        const V t1430 = t1102 - t1153;
        const P t1431 = joined(t1427, t1430);
        const Q t1432 = joined(t1428, t1431);
        // spectrum block of 2
        const Q t1433 = t1429 + t1432;
        const Q t1434 = t1429 - t1432;
        // spectrum block of 7, multiplier 4
        const V t1435 = t1072 + t1149;
        // spectrum block of 7, multiplier 4
        const P t1436 = t1093 + t1151;
        // spectrum block of 7, multiplier 4
        const Q t1437 = t1378 - t1402;
        // spectrum block of 7, multiplier 4
        const V t1438 = t1102 + t1153;
        const P t1439 = joined(t1435, t1438);
        const Q t1440 = joined(t1436, t1439);
        // spectrum block of 2
        const Q t1441 = t1437 + t1440;
        const Q t1442 = t1437 - t1440;
        const P t1443 = part<0>(t1203);
        // complex block of 7, multiplier 4
        const P t1444 = t1196 + t1443;
        const Q t1445 = c[1] * t1314;
        const P t1446 = part<0>(t1445);
        const P t1447 = t1310 - t1446;
        const P t1448 = t1444 + t1447;
        const P t1449 = t1444 - t1447;
        const P t1450 = t1303 + t1315;
        const Q t1451 = c[1] * t1215;
        const P t1452 = part<0>(t1451);
        const P t1453 = t1211 - t1452;
        const P t1454 = t1450 - t1453;
        const P t1455 = t1450 + t1453;
        const P t1456 = t1228 - t1190;
        const Q t1457 = c[2] * t1314;
        const P t1458 = part<0>(t1457);
        const P t1459 = t1331 + t1458;
        const P t1460 = t1456 + t1459;
        const P t1461 = t1456 - t1459;
        const Q t1462 = c[3] * t1289;
        const P t1463 = part<0>(t1462);
        const P t1464 = t1324 + t1463;
        const Q t1465 = c[2] * t1215;
        const P t1466 = part<0>(t1465);
        const P t1467 = t1237 + t1466;
        const P t1468 = t1464 - t1467;
        const P t1469 = t1464 + t1467;
        // spectrum block of 7, multiplier 4
        const Q t1470 = t1383 - t1407;
        const Q t1471 = flipped<0, 0, 1, 0>(t1158);
        // spectrum block of 7, multiplier 4
        const Q t1472 = t1086 - t1471;
        // spectrum block of 2
        const Q t1473 = t1470 + t1472;
        const Q t1474 = t1470 - t1472;
        // spectrum block of 7, multiplier 4
        const Q t1475 = t1383 + t1407;
        // spectrum block of 7, multiplier 4
        const Q t1476 = t1086 + t1471;
        // spectrum block of 2
        const Q t1477 = t1475 + t1476;
        const Q t1478 = t1475 - t1476;
        const Q t1479 = flipped<0, 0, 1, 1>(t1161);
        // complex block of 7, multiplier 4
        const Q t1480 = t1260 + t1479;
        // spectrum block of 2
        const Q t1481 = t1370 - t1095;
        const Q t1482 = flipped<1, 1, 0, 0>(t1480);
        // spectrum block of 2
        const Q t1483 = t1481 + t1482;
        const Q t1484 = t1481 - t1482;
        const P t1485 = shuffled<0, 3>(t1204, t1206);
        const P t1486 = shuffled<0, 3>(t1206, t1247);
        // complex block of 7, multiplier 4
        const P t1487 = t1485 - t1486;
        const P t1488 = part<1>(t1445);
        const P t1489 = t1313 - t1488;
        const P t1490 = t1487 + t1489;
        const P t1491 = t1487 - t1489;
        const P t1492 = t1305 + t1319;
        const P t1493 = part<1>(t1451);
        const P t1494 = t1214 - t1493;
        const P t1495 = t1492 - t1494;
        const P t1496 = t1492 + t1494;
        const P t1497 = shuffled<0, 3>(t1201, t1229);
        const P t1498 = flipped<1, 0>(t1497);
        const P t1499 = t1232 + t1498;
        const P t1500 = part<1>(t1457);
        const P t1501 = t1334 + t1500;
        const P t1502 = flipped<0, 1>(t1499);
        const P t1503 = t1501 + t1502;
        const P t1504 = flipped<1, 0>(t1501);
        const P t1505 = t1499 + t1504;
        const P t1506 = part<1>(t1462);
        const P t1507 = t1326 + t1506;
        const P t1508 = part<1>(t1465);
        const P t1509 = t1240 + t1508;
        const P t1510 = t1507 - t1509;
        const P t1511 = t1507 + t1509;
        const Q t1512 = joined(t1252, t1256);
        const Q t1513 = shuffled<0, 5, 2, 7>(t1479, t1250);
        const Q t1514 = shuffled<0, 1, 6, 7>(t1479, t1513);
        const Q t1515 = flipped<0, 0, 1, 1>(t1514);
        // complex block of 7, multiplier 4
        const Q t1516 = t1512 - t1515;
        const Q t1517 = c[5] * t1314;
        const Q t1518 = t1344 - t1517;
        const Q t1519 = t1516 + t1518;
        const Q t1520 = t1516 - t1518;
        const Q t1521 = c[4] * t1289;
        const Q t1522 = t1341 - t1521;
        const Q t1523 = c[5] * t1215;
        const Q t1524 = t1263 - t1523;
        const Q t1525 = t1522 - t1524;
        const Q t1526 = t1522 + t1524;
        // spectrum block of 2
        const Q t1527 = t1477 + t1526;
        // spectrum block of 2
        const Q t1528 = t1478 + t1520;
        const Q t1529 = shuffled<0, 1, 4, 5>(t1527, t1528);
        const Q t1530 = shuffled<2, 3, 6, 7>(t1527, t1528);
        // spectrum block of 2
        const Q t1531 = t1529 + t1530;
        io.pairs(7, 46, t1531);
        const Q t1532 = t1529 - t1530;
        io.pairs(52, 13, t1532);
        // spectrum block of 2
        const Q t1533 = t1477 - t1526;
        // spectrum block of 2
        const Q t1534 = t1478 - t1520;
        const Q t1535 = shuffled<0, 1, 4, 5>(t1534, t1533);
        const Q t1536 = shuffled<2, 3, 6, 7>(t1534, t1533);
        // spectrum block of 2
        const Q t1537 = t1535 + t1536;
        io.pairs(9, 17, t1537);
        const Q t1538 = t1535 - t1536;
        io.pairs(50, 42, t1538);
        const Q t1539 = joined(t1454, t1495);
        // spectrum block of 2
        const Q t1540 = t1417 + t1539;
        const Q t1541 = joined(t1468, t1510);
        // spectrum block of 2
        const Q t1542 = t1433 - t1541;
        const Q t1543 = shuffled<0, 1, 4, 5>(t1542, t1540);
        const Q t1544 = shuffled<2, 3, 6, 7>(t1542, t1540);
        // spectrum block of 2
        const Q t1545 = t1543 + t1544;
        io.pairs(41, 25, t1545);
        const Q t1546 = t1543 - t1544;
        io.pairs(18, 34, t1546);
        // spectrum block of 2
        const Q t1547 = t1417 - t1539;
        // spectrum block of 2
        const Q t1548 = t1433 + t1541;
        const Q t1549 = shuffled<0, 1, 4, 5>(t1547, t1548);
        const Q t1550 = shuffled<2, 3, 6, 7>(t1547, t1548);
        // spectrum block of 2
        const Q t1551 = t1549 + t1550;
        io.pairs(26, 36, t1551);
        const Q t1552 = t1549 - t1550;
        io.pairs(33, 23, t1552);
        const Q t1553 = joined(t1448, t1490);
        // spectrum block of 2
        const Q t1554 = t1418 + t1553;
        const Q t1555 = t1418 - t1553;
        const Q t1556 = shuffled<0, 1, 4, 5>(t1554, t1555);
        const Q t1557 = shuffled<2, 3, 6, 7>(t1554, t1555);
        // spectrum block of 2
        const Q t1558 = t1556 + t1557;
        io.pairs(57, 29, t1558);
        const Q t1559 = t1556 - t1557;
        io.pairs(2, 30, t1559);
        const Q t1560 = joined(t1469, t1511);
        // spectrum block of 2
        const Q t1561 = t1441 + t1560;
        const Q t1562 = joined(t1455, t1496);
        // spectrum block of 2
        const Q t1563 = t1425 + t1562;
        const Q t1564 = shuffled<0, 1, 4, 5>(t1563, t1561);
        const Q t1565 = shuffled<2, 3, 6, 7>(t1563, t1561);
        // spectrum block of 2
        const Q t1566 = t1564 + t1565;
        io.pairs(21, 20, t1566);
        const Q t1567 = t1564 - t1565;
        io.pairs(38, 39, t1567);
        // spectrum block of 2
        const Q t1568 = t1441 - t1560;
        // spectrum block of 2
        const Q t1569 = t1425 - t1562;
        const Q t1570 = shuffled<0, 1, 4, 5>(t1568, t1569);
        const Q t1571 = shuffled<2, 3, 6, 7>(t1568, t1569);
        // spectrum block of 2
        const Q t1572 = t1570 + t1571;
        io.pairs(3, 45, t1572);
        const Q t1573 = t1570 - t1571;
        io.pairs(56, 14, t1573);
        const P t1574 = flipped<0, 1>(t1505);
        const Q t1575 = joined(t1461, t1574);
        // spectrum block of 2
        const Q t1576 = t1442 + t1575;
        // spectrum block of 2
        const Q t1577 = t1474 - t1519;
        const Q t1578 = shuffled<0, 1, 4, 5>(t1577, t1576);
        const Q t1579 = shuffled<2, 3, 6, 7>(t1577, t1576);
        // spectrum block of 2
        const Q t1580 = t1578 + t1579;
        io.pairs(53, 28, t1580);
        const Q t1581 = t1578 - t1579;
        io.pairs(6, 31, t1581);
        // spectrum block of 2
        const Q t1582 = t1442 - t1575;
        // spectrum block of 2
        const Q t1583 = t1474 + t1519;
        const Q t1584 = shuffled<0, 1, 4, 5>(t1582, t1583);
        const Q t1585 = shuffled<2, 3, 6, 7>(t1582, t1583);
        // spectrum block of 2
        const Q t1586 = t1584 + t1585;
        io.pairs(19, 49, t1586);
        const Q t1587 = t1584 - t1585;
        io.pairs(40, 10, t1587);
        const Q t1588 = joined(t1460, t1503);
        // spectrum block of 2
        const Q t1589 = t1434 + t1588;
        const Q t1590 = joined(t1449, t1491);
        // spectrum block of 2
        const Q t1591 = t1426 + t1590;
        const Q t1592 = shuffled<0, 1, 4, 5>(t1591, t1589);
        const Q t1593 = shuffled<2, 3, 6, 7>(t1591, t1589);
        // spectrum block of 2
        const Q t1594 = t1592 + t1593;
        io.pairs(48, 12, t1594);
        const Q t1595 = t1592 - t1593;
        io.pairs(11, 47, t1595);
        // spectrum block of 2
        const Q t1596 = t1434 - t1588;
        // spectrum block of 2
        const Q t1597 = t1426 - t1590;
        const Q t1598 = shuffled<0, 1, 4, 5>(t1596, t1597);
        const Q t1599 = shuffled<2, 3, 6, 7>(t1596, t1597);
        // spectrum block of 2
        const Q t1600 = t1598 + t1599;
        io.pairs(5, 16, t1600);
        const Q t1601 = t1598 - t1599;
        io.pairs(54, 43, t1601);
        // spectrum block of 2
        const Q t1602 = t1473 + t1525;
        const Q t1603 = shuffled<0, 1, 4, 5>(t1602, t1483);
        const Q t1604 = shuffled<2, 3, 6, 7>(t1602, t1483);
        // spectrum block of 2
        const Q t1605 = t1603 + t1604;
        io.pairs(22, 35, t1605);
        const Q t1606 = t1603 - t1604;
        io.pairs(37, 24, t1606);
        // spectrum block of 2
        const Q t1607 = t1473 - t1525;
        const Q t1608 = shuffled<0, 1, 4, 5>(t1484, t1607);
        const Q t1609 = shuffled<2, 3, 6, 7>(t1484, t1607);
        // spectrum block of 2
        const Q t1610 = t1608 + t1609;
        io.pairs(27, 51, t1610);
        const Q t1611 = t1608 - t1609;
        io.pairs(32, 8, t1611);
        // complex block of 7, multiplier 4
        const Q t1612 = t1337 + t1292;
        // spectrum block of 2
        const Q t1613 = t1370 + t1095;
        // spectrum block of 2
        const Q t1614 = t1613 + t1612;
        const Q t1615 = t1613 - t1612;
        const Q t1616 = shuffled<0, 1, 4, 5>(t1409, t1614);
        const Q t1617 = shuffled<2, 3, 6, 7>(t1409, t1614);
        // spectrum block of 2
        const Q t1618 = t1616 + t1617;
        io.pairs(1, 15, t1618);
        const Q t1619 = t1616 - t1617;
        io.pairs(58, 44, t1619);
        const P t1620 = part<0>(t1615);
        const P t1621 = part<1>(t1615);
        // spectrum block of 2
        const P t1622 = t1620 + t1621;
        io.pair(4, t1622);
        const P t1623 = t1620 - t1621;
        io.pair(55, t1623);
    }
};

}  // namespace zulg
