// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 59.
// Inverse DFT to 59 real points, Rader 2, 29; two lanes to a register.
// 377 sums, 295 differences, 507 products of registers, which do the 2411 steps of the graph, those with
// `scale` included; 114 shuffles, 35 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<59> {
    static constexpr int steps = 2411;  // with `scale`
    static constexpr double inverseRoot = 0.13018891098082389;  // 1/sqrt(59), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.7818314824680298,  // c[3]: -sin 2 pi 20/7
        0.4338837391175581,  // c[4]: -sin 2 pi 4/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        2.0,  // c[6]: 2
        0.07274108340629196,  // c[7]: -P[7] of 29
        0.3777140697119294,  // c[8]: Q[7] of 29
        0.03571428571428571,  // c[9]: 1/28
        0.2768145884649087,  // c[10]: P[1] of 29
        0.2670821358430261,  // c[11]: -Q[1] of 29
        0.21129297752958617,  // c[12]: P[2] of 29
        0.32142566997698113,  // c[13]: Q[2] of 29
        0.29302504444220384,  // c[14]: P[3] of 29
        0.2491897008367598,  // c[15]: Q[3] of 29
        0.3290592701972177,  // c[16]: P[4] of 29
        0.19919633623825483,  // c[17]: Q[4] of 29
        0.26862162181749166,  // c[18]: P[5] of 29
        0.27532091814028564,  // c[19]: -Q[5] of 29
        0.13741940099767344,  // c[20]: P[6] of 29
        0.35927022128602587,  // c[21]: Q[6] of 29
        0.3205115713047231,  // c[22]: -P[8] of 29
        0.21267702351981235,  // c[23]: Q[8] of 29
        0.035220206650882144,  // c[24]: P[9] of 29
        0.38303879792644835,  // c[25]: -Q[9] of 29
        0.37569917287106036,  // c[26]: P[10] of 29
        0.0825185747421179,  // c[27]: -Q[10] of 29
        0.28787780453569184,  // c[28]: -Q[11] of 29
        0.25511870438911255,  // c[29]: -P[11] of 29
        0.0870482765930398,  // c[30]: P[12] of 29
        0.37467556794599116,  // c[31]: Q[12] of 29
        0.3714454456857387,  // c[32]: Q[13] of 29
        0.0999373031094614,  // c[33]: -P[13] of 29
        0.192327314540518,  // c[34]: beta of 29
        0.3219828698364479,  // c[35]: -Q[1] of 29
        0.21044290248272673,  // c[36]: -P[1] of 29
        0.3298297662985413,  // c[37]: P[2] of 29
        0.19791793485411824,  // c[38]: Q[2] of 29
        0.012126226322052493,  // c[39]: Q[3] of 29
        0.384463442096457,  // c[40]: -P[3] of 29
        0.3609030660383976,  // c[41]: P[4] of 29
        0.1330720128259635,  // c[42]: -Q[4] of 29
        0.13150502224471186,  // c[43]: P[5] of 29
        0.36147698792300353,  // c[44]: -Q[5] of 29
        0.38084126020120657,  // c[45]: P[6] of 29
        0.054028864524680344,  // c[46]: -Q[6] of 29
        0.2786653006997481,  // c[47]: P[8] of 29
        0.26515058713755163,  // c[48]: Q[8] of 29
        0.13446199615788765,  // c[49]: Q[9] of 29
        0.3603875070846735,  // c[50]: P[9] of 29
        0.24228395147216553,  // c[51]: -Q[10] of 29
        0.2987602224736465,  // c[52]: -P[10] of 29
        0.38413584113980626,  // c[53]: Q[11] of 29
        0.019970959548377194,  // c[54]: -P[11] of 29
        0.08413784916151361,  // c[55]: P[12] of 29
        0.3753398540149231,  // c[56]: -Q[12] of 29
        0.3398943908268515,  // c[57]: -Q[13] of 29
        0.1800860537573993,  // c[58]: -P[13] of 29
        0.014845190038075228,  // c[59]: P[1] of 59
        0.26445074818613296,  // c[60]: -Q[1] of 59
        0.26114224835741606,  // c[61]: P[2] of 59
        0.044264026096884644,  // c[62]: -Q[2] of 59
        0.08505303139228909,  // c[63]: -Q[3] of 59
        0.25083970924567417,  // c[64]: -P[3] of 59
        0.015691052751184383,  // c[65]: -P[4] of 59
        0.2644019076085337,  // c[66]: Q[4] of 59
        0.02305879622432487,  // c[67]: P[5] of 59
        0.26386145948235246,  // c[68]: Q[5] of 59
        0.2561089569283855,  // c[69]: Q[6] of 59
        0.06754835352935287,  // c[70]: P[6] of 59
        0.08001273571676054,  // c[71]: -Q[7] of 59
        0.25249265337152266,  // c[72]: -P[7] of 59
        0.11501162603233117,  // c[73]: Q[8] of 59
        0.238593595389464,  // c[74]: P[8] of 59
        0.2570603151186636,  // c[75]: -Q[9] of 59
        0.0638323763819381,  // c[76]: P[9] of 59
        0.240603592321257,  // c[77]: Q[10] of 59
        0.11074515450157817,  // c[78]: P[10] of 59
        0.15288063964143453,  // c[79]: Q[11] of 59
        0.21629167322460174,  // c[80]: P[11] of 59
        0.24939428176067635,  // c[81]: -P[12] of 59
        0.08920241088977601,  // c[82]: Q[12] of 59
        0.11725683642615767,  // c[83]: P[13] of 59
        0.2374982361930323,  // c[84]: Q[13] of 59
        0.22888251085220956,  // c[85]: Q[14] of 59
        0.13329431386769738,  // c[86]: -P[14] of 59
        0.02394684976343933,  // c[87]: -Q[15] of 59
        0.26378234639543136,  // c[88]: P[15] of 59
        0.23880474209212857,  // c[89]: P[16] of 59
        0.11457256668934328,  // c[90]: -Q[16] of 59
        0.1612612423114406,  // c[91]: Q[17] of 59
        0.210117561407044,  // c[92]: -P[17] of 59
        0.23429573625085479,  // c[93]: P[18] of 59
        0.12353172004850395,  // c[94]: -Q[18] of 59
        0.11676103224202658,  // c[95]: -Q[19] of 59
        0.2377423799688404,  // c[96]: -P[19] of 59
        0.21542011720118803,  // c[97]: Q[20] of 59
        0.15410629769252931,  // c[98]: -P[20] of 59
        0.2309299428168255,  // c[99]: Q[21] of 59
        0.1297148387582923,  // c[100]: -P[21] of 59
        0.1670393661682332,  // c[101]: Q[22] of 59
        0.20555395406945343,  // c[102]: P[22] of 59
        0.0487750221655463,  // c[103]: P[23] of 59
        0.26033742546207705,  // c[104]: -Q[23] of 59
        0.26473942475012313,  // c[105]: -P[24] of 59
        0.008222825940389141,  // c[106]: -Q[24] of 59
        0.12154489634858227,  // c[107]: Q[25] of 59
        0.23533256479944387,  // c[108]: -P[25] of 59
        0.14536461098959946,  // c[109]: Q[26] of 59
        0.2214129800967289,  // c[110]: P[26] of 59
        0.05421421718259892,  // c[111]: -Q[27] of 59
        0.25925932295435405,  // c[112]: P[27] of 59
        0.0854499159287465,  // c[113]: Q[28] of 59
        0.2507047860557158,  // c[114]: P[28] of 59
        0.017241379310344827,  // c[115]: 1/58
        0.13243354737704496,  // c[116]: -beta of 59
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x28 = io.pair(28);
        // doubled bins
        const P t0 = c[6] * x28;
        const P x13 = io.pair(13);
        const P t1 = P(c[6], -c[6]) * x13;
        // real block of 7, multiplier 4
        const P t2 = t0 + t1;
        const P t3 = flipped<0, 1>(t1);
        const P t4 = flipped<1, 0>(t0);
        const P t5 = t3 + t4;
        const P x12 = io.pair(12);
        // doubled bins
        const P t6 = c[6] * x12;
        const P x24 = io.pair(24);
        const P t7 = P(c[6], -c[6]) * x24;
        // real block of 7, multiplier 4
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x11 = io.pair(11);
        // doubled bins
        const P t10 = c[6] * x11;
        const P x10 = io.pair(10);
        const P t11 = c[6] * x10;
        // real block of 7, multiplier 4
        const P t12 = t10 + t11;
        const P t13 = shuffled<0, 3>(t10, t11);
        const P t14 = shuffled<0, 3>(t11, t10);
        const P t15 = t13 - t14;
        const P t16 = t2 + t8;
        const P t17 = flipped<0, 1>(t12);
        const P t18 = t16 + t17;
        const P x2 = io.pair(2);
        // doubled bins
        const P t19 = P(c[6], -c[6]) * x2;
        // real block of 7, multiplier 4
        const P t20 = t18 + t19;
        const P t21 = flipped<0, 1>(t19);
        const P t22 = P(-c[0], c[0]) * t2;
        const P t23 = t21 + t22;
        const P t24 = c[1] * t8;
        const P t25 = flipped<0, 1>(t23);
        const P t26 = t24 + t25;
        const P t27 = P(-c[2], c[2]) * t12;
        const P t28 = t26 + t27;
        const P t29 = c[3] * t9;
        const P t30 = P(c[4], -c[4]) * t5;
        const P t31 = t29 + t30;
        const P t32 = c[5] * t15;
        const P t33 = t31 - t32;
        const P t34 = c[1] * t2;
        const P t35 = c[2] * t8;
        const P t36 = t34 - t35;
        const P t37 = P(-c[0], c[0]) * t12;
        const P t38 = t36 + t37;
        const P t39 = t38 + t19;
        const P t40 = c[4] * t15;
        const P t41 = c[3] * t5;
        const P t42 = shuffled<0, 3>(t40, t41);
        const P t43 = c[5] * t9;
        const P t44 = t42 + t43;
        const P t45 = shuffled<0, 3>(t41, t40);
        const P t46 = flipped<1, 0>(t45);
        const P t47 = t44 + t46;
        const P t48 = P(-c[2], c[2]) * t2;
        const P t49 = t21 + t48;
        const P t50 = P(-c[0], c[0]) * t8;
        const P t51 = t49 + t50;
        const P t52 = c[1] * t12;
        const P t53 = t51 + t52;
        const P t54 = c[4] * t9;
        const P t55 = c[5] * t5;
        const P t56 = c[3] * t15;
        const P t57 = shuffled<0, 3>(t55, t56);
        const P t58 = t54 + t57;
        const P t59 = shuffled<0, 3>(t56, t55);
        const P t60 = flipped<0, 1>(t59);
        const P t61 = t58 + t60;
        const P x7 = io.pair(7);
        // doubled bins
        const P t62 = c[6] * x7;
        const P x20 = io.pair(20);
        const P t63 = c[6] * x20;
        // real block of 7, multiplier 4
        const P t64 = t62 + t63;
        const P t65 = t62 - t63;
        const P x15 = io.pair(15);
        // doubled bins
        const P t66 = c[6] * x15;
        const P x23 = io.pair(23);
        const P t67 = P(c[6], -c[6]) * x23;
        // real block of 7, multiplier 4
        const P t68 = t66 + t67;
        const P t69 = flipped<0, 1>(t67);
        const P t70 = flipped<1, 0>(t66);
        const P t71 = t69 + t70;
        const P x21 = io.pair(21);
        // doubled bins
        const P t72 = c[6] * x21;
        const P x22 = io.pair(22);
        const P t73 = c[6] * x22;
        // real block of 7, multiplier 4
        const P t74 = t72 + t73;
        const P t75 = t72 - t73;
        const P t76 = t64 + t68;
        const P t77 = t76 + t74;
        const P x25 = io.pair(25);
        // doubled bins
        const P t78 = c[6] * x25;
        // real block of 7, multiplier 4
        const P t79 = t77 + t78;
        const P t80 = c[0] * t64;
        const P t81 = t78 - t80;
        const P t82 = c[1] * t68;
        const P t83 = t81 + t82;
        const P t84 = c[2] * t74;
        const P t85 = t83 - t84;
        const P t86 = c[4] * t65;
        const P t87 = P(c[3], -c[3]) * t71;
        const P t88 = t86 + t87;
        const P t89 = c[5] * t75;
        const P t90 = t88 - t89;
        const P t91 = c[1] * t64;
        const P t92 = c[2] * t68;
        const P t93 = t91 - t92;
        const P t94 = c[0] * t74;
        const P t95 = t93 - t94;
        const P t96 = t95 + t78;
        const P t97 = c[4] * t75;
        const P t98 = c[5] * t71;
        const P t99 = P(c[3], -c[3]) * t65;
        const P t100 = shuffled<0, 3>(t98, t99);
        const P t101 = t97 + t100;
        const P t102 = shuffled<0, 3>(t99, t98);
        const P t103 = t101 - t102;
        const P t104 = c[2] * t64;
        const P t105 = t78 - t104;
        const P t106 = c[0] * t68;
        const P t107 = t105 - t106;
        const P t108 = c[1] * t74;
        const P t109 = t107 + t108;
        const P t110 = c[5] * t65;
        const P t111 = c[4] * t71;
        const P t112 = c[3] * t75;
        const P t113 = shuffled<0, 3>(t111, t112);
        const P t114 = t110 + t113;
        const P t115 = shuffled<0, 3>(t112, t111);
        const P t116 = flipped<0, 1>(t115);
        const P t117 = t114 + t116;
        const P x9 = io.pair(9);
        // doubled bins
        const P t118 = c[6] * x9;
        const P x19 = io.pair(19);
        const P t119 = c[6] * x19;
        // real block of 7, multiplier 4
        const P t120 = t118 + t119;
        const P t121 = t118 - t119;
        const P x5 = io.pair(5);
        // doubled bins
        const P t122 = c[6] * x5;
        const P x27 = io.pair(27);
        const P t123 = c[6] * x27;
        // real block of 7, multiplier 4
        const P t124 = t122 + t123;
        const P t125 = t122 - t123;
        const P x16 = io.pair(16);
        // doubled bins
        const P t126 = c[6] * x16;
        const P x6 = io.pair(6);
        const P t127 = P(c[6], -c[6]) * x6;
        // real block of 7, multiplier 4
        const P t128 = t126 + t127;
        const P t129 = t126 - t127;
        const P t130 = t120 + t124;
        const P t131 = t130 + t128;
        const P x29 = io.pair(29);
        // doubled bins
        const P t132 = c[6] * x29;
        // real block of 7, multiplier 4
        const P t133 = t131 + t132;
        const P t134 = c[0] * t120;
        const P t135 = t132 - t134;
        const P t136 = c[1] * t124;
        const P t137 = t135 + t136;
        const P t138 = c[2] * t128;
        const P t139 = t137 - t138;
        const P t140 = c[4] * t121;
        const P t141 = c[3] * t125;
        const P t142 = t140 + t141;
        const P t143 = c[5] * t129;
        const P t144 = t142 - t143;
        const P t145 = c[1] * t120;
        const P t146 = c[2] * t124;
        const P t147 = t145 - t146;
        const P t148 = c[0] * t128;
        const P t149 = t147 - t148;
        const P t150 = t149 + t132;
        const P t151 = c[5] * t125;
        const P t152 = c[4] * t129;
        const P t153 = t151 + t152;
        const P t154 = c[3] * t121;
        const P t155 = t153 - t154;
        const P t156 = c[2] * t120;
        const P t157 = t132 - t156;
        const P t158 = c[0] * t124;
        const P t159 = t157 - t158;
        const P t160 = c[1] * t128;
        const P t161 = t159 + t160;
        const P t162 = c[5] * t121;
        const P t163 = c[4] * t125;
        const P t164 = t162 + t163;
        const P t165 = c[3] * t129;
        const P t166 = t164 + t165;
        const P x17 = io.pair(17);
        // doubled bins
        const P t167 = c[6] * x17;
        const P x3 = io.pair(3);
        const P t168 = c[6] * x3;
        // real block of 7, multiplier 4
        const P t169 = t167 + t168;
        const P t170 = t167 - t168;
        const P x4 = io.pair(4);
        // doubled bins
        const P t171 = c[6] * x4;
        const P x18 = io.pair(18);
        const P t172 = P(c[6], -c[6]) * x18;
        // real block of 7, multiplier 4
        const P t173 = t171 + t172;
        const P t174 = flipped<0, 1>(t172);
        const P t175 = flipped<1, 0>(t171);
        const P t176 = t174 + t175;
        const P x14 = io.pair(14);
        // doubled bins
        const P t177 = c[6] * x14;
        const P x8 = io.pair(8);
        const P t178 = c[6] * x8;
        // real block of 7, multiplier 4
        const P t179 = t177 + t178;
        const P t180 = shuffled<0, 3>(t177, t178);
        const P t181 = shuffled<0, 3>(t178, t177);
        const P t182 = t180 - t181;
        const P t183 = t169 + t173;
        const P t184 = flipped<0, 1>(t179);
        const P t185 = t183 + t184;
        const P x26 = io.pair(26);
        // doubled bins
        const P t186 = c[6] * x26;
        // real block of 7, multiplier 4
        const P t187 = t185 + t186;
        const P t188 = c[0] * t169;
        const P t189 = t186 - t188;
        const P t190 = c[1] * t173;
        const P t191 = t189 + t190;
        const P t192 = P(-c[2], c[2]) * t179;
        const P t193 = t191 + t192;
        const P t194 = c[4] * t170;
        const P t195 = P(c[3], -c[3]) * t176;
        const P t196 = t194 + t195;
        const P t197 = c[5] * t182;
        const P t198 = t196 - t197;
        const P t199 = c[1] * t169;
        const P t200 = c[2] * t173;
        const P t201 = t199 - t200;
        const P t202 = P(-c[0], c[0]) * t179;
        const P t203 = t201 + t202;
        const P t204 = t203 + t186;
        const P t205 = c[4] * t182;
        const P t206 = c[5] * t176;
        const P t207 = P(c[3], -c[3]) * t170;
        const P t208 = shuffled<0, 3>(t206, t207);
        const P t209 = t205 + t208;
        const P t210 = shuffled<0, 3>(t207, t206);
        const P t211 = t209 - t210;
        const P t212 = c[2] * t169;
        const P t213 = t186 - t212;
        const P t214 = c[0] * t173;
        const P t215 = t213 - t214;
        const P t216 = P(c[1], -c[1]) * t179;
        const P t217 = t215 + t216;
        const P t218 = c[5] * t170;
        const P t219 = c[4] * t176;
        const P t220 = c[3] * t182;
        const P t221 = shuffled<0, 3>(t219, t220);
        const P t222 = t218 + t221;
        const P t223 = shuffled<0, 3>(t220, t219);
        const P t224 = flipped<0, 1>(t223);
        const P t225 = t222 + t224;
        // real block of 2
        const P t226 = t20 + t133;
        const P t227 = t20 - t133;
        // real block of 2
        const P t228 = t79 + t187;
        const P t229 = t79 - t187;
        // real block of 2
        const P t230 = t226 + t228;
        const P t231 = t226 - t228;
        // complex block of 2
        const P t232 = t28 + t139;
        const P t233 = t33 + t144;
        const P t234 = t28 - t139;
        const P t235 = t33 - t144;
        // complex block of 2
        const P t236 = t85 + t193;
        const P t237 = t90 + t198;
        const P t238 = t85 - t193;
        const P t239 = t90 - t198;
        // complex block of 2
        const P t240 = t232 + t236;
        const P t241 = t233 + t237;
        const P t242 = t232 - t236;
        const P t243 = t233 - t237;
        // complex block of 2
        const P t244 = t234 - t239;
        const P t245 = t235 + t238;
        const P t246 = t234 + t239;
        const P t247 = t235 - t238;
        // complex block of 2
        const P t248 = t39 + t150;
        const P t249 = t47 + t155;
        const P t250 = t39 - t150;
        const P t251 = t47 - t155;
        // complex block of 2
        const P t252 = t96 + t204;
        const P t253 = t103 + t211;
        const P t254 = t96 - t204;
        const P t255 = t103 - t211;
        // complex block of 2
        const P t256 = t248 + t252;
        const P t257 = t249 + t253;
        const P t258 = t248 - t252;
        const P t259 = t249 - t253;
        // complex block of 2
        const P t260 = t250 - t255;
        const P t261 = t251 + t254;
        const P t262 = t250 + t255;
        const P t263 = t251 - t254;
        const P t264 = flipped<0, 1>(t53);
        // complex block of 2
        const P t265 = t161 + t264;
        const P t266 = t61 + t166;
        const P t267 = flipped<1, 0>(t161);
        const P t268 = t53 + t267;
        const P t269 = t61 - t166;
        // complex block of 2
        const P t270 = t109 + t217;
        const P t271 = t117 + t225;
        const P t272 = t109 - t217;
        const P t273 = t117 - t225;
        // complex block of 2
        const P t274 = t265 + t270;
        const P t275 = t266 + t271;
        const P t276 = t265 - t270;
        const P t277 = t266 - t271;
        const P t278 = flipped<1, 0>(t273);
        // complex block of 2
        const P t279 = t268 + t278;
        const P t280 = t269 + t272;
        const P t281 = flipped<0, 1>(t268);
        const P t282 = t273 + t281;
        const P t283 = t269 - t272;
        const P x1 = io.pair(1);
        // doubled bins
        const P t284 = c[6] * x1;
        // real block of 29
        const P t285 = t284 + t230;
        const P t286 = c[9] * t230;
        const P t287 = t284 - t286;
        const P t288 = c[10] * t262;
        const P t289 = c[11] * t263;
        const P t290 = t288 + t289;
        const P t291 = c[10] * t263;
        const P t292 = c[11] * t262;
        const P t293 = t291 - t292;
        const P t294 = c[12] * t276;
        const P t295 = c[13] * t277;
        const P t296 = t294 + t295;
        const P t297 = c[13] * t276;
        const P t298 = c[12] * t277;
        const P t299 = t297 - t298;
        const P t300 = c[14] * t246;
        const P t301 = c[15] * t247;
        const P t302 = t300 + t301;
        const P t303 = c[15] * t246;
        const P t304 = c[14] * t247;
        const P t305 = t303 - t304;
        const P t306 = c[16] * t240;
        const P t307 = c[17] * t241;
        const P t308 = t306 - t307;
        const P t309 = c[16] * t241;
        const P t310 = c[17] * t240;
        const P t311 = t309 + t310;
        const P t312 = c[18] * t282;
        const P t313 = c[19] * t283;
        const P t314 = t312 + t313;
        const P t315 = c[18] * t283;
        const P t316 = c[19] * t282;
        const P t317 = t315 - t316;
        const P t318 = c[20] * t258;
        const P t319 = c[21] * t259;
        const P t320 = t318 + t319;
        const P t321 = c[21] * t258;
        const P t322 = c[20] * t259;
        const P t323 = t321 - t322;
        const P t324 = c[7] * t227;
        const P t325 = c[8] * t229;
        const P t326 = t324 + t325;
        const P t327 = c[8] * t227;
        const P t328 = c[7] * t229;
        const P t329 = t327 - t328;
        const P t330 = c[22] * t256;
        const P t331 = c[23] * t257;
        const P t332 = t330 + t331;
        const P t333 = c[23] * t256;
        const P t334 = c[22] * t257;
        const P t335 = t333 - t334;
        const P t336 = c[24] * t279;
        const P t337 = P(-c[25], c[25]) * t280;
        const P t338 = t336 + t337;
        const P t339 = c[25] * t279;
        const P t340 = P(c[24], -c[24]) * t280;
        const P t341 = t339 + t340;
        const P t342 = c[26] * t242;
        const P t343 = c[27] * t243;
        const P t344 = t342 - t343;
        const P t345 = c[26] * t243;
        const P t346 = c[27] * t242;
        const P t347 = t345 + t346;
        const P t348 = c[28] * t245;
        const P t349 = c[29] * t244;
        const P t350 = t348 - t349;
        const P t351 = c[29] * t245;
        const P t352 = c[28] * t244;
        const P t353 = t351 + t352;
        const P t354 = c[30] * t274;
        const P t355 = c[31] * t275;
        const P t356 = t354 - t355;
        const P t357 = c[30] * t275;
        const P t358 = c[31] * t274;
        const P t359 = t357 + t358;
        const P t360 = c[32] * t261;
        const P t361 = c[33] * t260;
        const P t362 = t360 - t361;
        const P t363 = c[33] * t261;
        const P t364 = c[32] * t260;
        const P t365 = t363 + t364;
        const P t366 = c[34] * t231;
        // spectrum block of 2
        const P t367 = t287 + t366;
        const P t368 = t287 - t366;
        // complex block of 2
        const P t369 = t311 + t347;
        const P t370 = t308 + t344;
        const P t371 = t311 - t347;
        const P t372 = t308 - t344;
        // complex block of 2
        const P t373 = t335 - t323;
        const P t374 = t320 - t332;
        const P t375 = t335 + t323;
        const P t376 = t332 + t320;
        // complex block of 2
        const P t377 = t359 - t299;
        const P t378 = t356 + t296;
        const P t379 = t359 + t299;
        const P t380 = t356 - t296;
        // spectrum block of 7, multiplier 2
        const P t381 = t370 + t374;
        const P t382 = t381 + t378;
        const P t383 = t382 + t367;
        const P t384 = c[1] * t370;
        const P t385 = c[2] * t374;
        const P t386 = t384 - t385;
        const P t387 = c[0] * t378;
        const P t388 = t386 - t387;
        const P t389 = t388 + t367;
        const P t390 = c[3] * t369;
        const P t391 = c[5] * t373;
        const P t392 = t390 + t391;
        const P t393 = c[4] * t377;
        const P t394 = t392 + t393;
        const P t395 = t389 - t394;
        const P t396 = t389 + t394;
        const P t397 = c[2] * t370;
        const P t398 = t367 - t397;
        const P t399 = c[0] * t374;
        const P t400 = t398 - t399;
        const P t401 = c[1] * t378;
        const P t402 = t400 + t401;
        const P t403 = c[5] * t369;
        const P t404 = c[4] * t373;
        const P t405 = t403 - t404;
        const P t406 = c[3] * t377;
        const P t407 = t405 - t406;
        const P t408 = t402 - t407;
        const P t409 = t402 + t407;
        const P t410 = c[0] * t370;
        const P t411 = t367 - t410;
        const P t412 = c[1] * t374;
        const P t413 = t411 + t412;
        const P t414 = c[2] * t378;
        const P t415 = t413 - t414;
        const P t416 = c[4] * t369;
        const P t417 = c[3] * t373;
        const P t418 = t416 - t417;
        const P t419 = c[5] * t377;
        const P t420 = t418 + t419;
        const P t421 = t415 - t420;
        const P t422 = t415 + t420;
        // spectrum block of 7, multiplier 2
        const P t423 = t372 - t376;
        const P t424 = t423 + t380;
        const P t425 = t424 + t368;
        const P t426 = c[1] * t372;
        const P t427 = c[2] * t376;
        const P t428 = t426 + t427;
        const P t429 = c[0] * t380;
        const P t430 = t428 - t429;
        const P t431 = t430 + t368;
        const P t432 = c[3] * t371;
        const P t433 = c[5] * t375;
        const P t434 = t432 + t433;
        const P t435 = c[4] * t379;
        const P t436 = t434 + t435;
        const P t437 = t431 - t436;
        const P t438 = t431 + t436;
        const P t439 = c[2] * t372;
        const P t440 = t368 - t439;
        const P t441 = c[0] * t376;
        const P t442 = t440 + t441;
        const P t443 = c[1] * t380;
        const P t444 = t442 + t443;
        const P t445 = c[5] * t371;
        const P t446 = c[4] * t375;
        const P t447 = t445 - t446;
        const P t448 = c[3] * t379;
        const P t449 = t447 - t448;
        const P t450 = t444 - t449;
        const P t451 = t444 + t449;
        const P t452 = c[0] * t372;
        const P t453 = t368 - t452;
        const P t454 = c[1] * t376;
        const P t455 = t453 - t454;
        const P t456 = c[2] * t380;
        const P t457 = t455 - t456;
        const P t458 = c[4] * t371;
        const P t459 = c[3] * t375;
        const P t460 = t458 - t459;
        const P t461 = c[5] * t379;
        const P t462 = t460 + t461;
        const P t463 = t457 - t462;
        const P t464 = t457 + t462;
        // complex block of 2
        const P t465 = t362 - t290;
        const P t466 = t293 + t365;
        const P t467 = t290 + t362;
        const P t468 = t293 - t365;
        // mirrored skew block of 14
        const P t469 = c[5] * t468;
        const P t470 = c[2] * t467;
        const P t471 = t469 + t470;
        const P t472 = c[2] * t468;
        const P t473 = c[5] * t467;
        const P t474 = t472 - t473;
        // complex block of 2
        const P t475 = t350 - t302;
        const P t476 = t305 - t353;
        const P t477 = t302 + t350;
        const P t478 = t305 + t353;
        // mirrored skew block of 14
        const P t479 = c[3] * t478;
        const P t480 = c[1] * t477;
        const P t481 = t479 + t480;
        const P t482 = c[1] * t478;
        const P t483 = c[3] * t477;
        const P t484 = t482 - t483;
        const P t485 = flipped<1, 0>(t314);
        // complex block of 2
        const P t486 = t485 + t338;
        const P t487 = flipped<1, 0>(t341);
        const P t488 = t317 + t487;
        const P t489 = t338 - t485;
        const P t490 = t317 - t487;
        // mirrored skew block of 14
        const P t491 = c[4] * t490;
        const P t492 = P(c[0], -c[0]) * t489;
        const P t493 = t491 + t492;
        const P t494 = P(-c[4], c[4]) * t489;
        const P t495 = c[0] * t490;
        const P t496 = t494 + t495;
        // spectrum block of 7, multiplier 2
        const P t497 = t488 + t476;
        const P t498 = t497 + t466;
        const P t499 = t498 + t329;
        const P t500 = c[1] * t488;
        const P t501 = c[2] * t476;
        const P t502 = t500 - t501;
        const P t503 = c[0] * t466;
        const P t504 = t502 - t503;
        const P t505 = t504 + t329;
        const P t506 = c[3] * t486;
        const P t507 = P(c[5], -c[5]) * t475;
        const P t508 = t506 + t507;
        const P t509 = P(c[4], -c[4]) * t465;
        const P t510 = t508 + t509;
        const P t511 = flipped<0, 1>(t510);
        const P t512 = t505 + t511;
        const P t513 = t505 - t511;
        const P t514 = c[2] * t488;
        const P t515 = t329 - t514;
        const P t516 = c[0] * t476;
        const P t517 = t515 - t516;
        const P t518 = c[1] * t466;
        const P t519 = t517 + t518;
        const P t520 = P(-c[5], c[5]) * t486;
        const P t521 = c[4] * t475;
        const P t522 = t520 + t521;
        const P t523 = c[3] * t465;
        const P t524 = t522 + t523;
        const P t525 = t519 - t524;
        const P t526 = t519 + t524;
        const P t527 = c[0] * t488;
        const P t528 = t329 - t527;
        const P t529 = c[1] * t476;
        const P t530 = t528 + t529;
        const P t531 = c[2] * t466;
        const P t532 = t530 - t531;
        const P t533 = P(-c[4], c[4]) * t486;
        const P t534 = c[3] * t475;
        const P t535 = t533 + t534;
        const P t536 = c[5] * t465;
        const P t537 = t535 - t536;
        const P t538 = t532 - t537;
        const P t539 = t532 + t537;
        // spectrum block of 7, multiplier 2
        const P t540 = t493 + t481;
        const P t541 = t540 + t471;
        const P t542 = t541 - t326;
        const P t543 = c[1] * t493;
        const P t544 = c[2] * t481;
        const P t545 = t543 - t544;
        const P t546 = c[0] * t471;
        const P t547 = t545 - t546;
        const P t548 = t547 - t326;
        const P t549 = c[3] * t496;
        const P t550 = c[5] * t484;
        const P t551 = t549 + t550;
        const P t552 = c[4] * t474;
        const P t553 = t551 + t552;
        const P t554 = t548 + t553;
        const P t555 = t548 - t553;
        const P t556 = c[2] * t493;
        const P t557 = t326 + t556;
        const P t558 = c[0] * t481;
        const P t559 = t557 + t558;
        const P t560 = c[1] * t471;
        const P t561 = t560 - t559;
        const P t562 = c[4] * t484;
        const P t563 = c[5] * t496;
        const P t564 = t562 - t563;
        const P t565 = c[3] * t474;
        const P t566 = t564 + t565;
        const P t567 = t561 - t566;
        const P t568 = t561 + t566;
        const P t569 = c[0] * t493;
        const P t570 = t326 + t569;
        const P t571 = c[1] * t481;
        const P t572 = t571 - t570;
        const P t573 = c[2] * t471;
        const P t574 = t572 - t573;
        const P t575 = c[3] * t484;
        const P t576 = c[4] * t496;
        const P t577 = t575 - t576;
        const P t578 = c[5] * t474;
        const P t579 = t577 - t578;
        const P t580 = t574 - t579;
        const P t581 = t574 + t579;
        const V x0r = io.re(0);
        const V t582 = part<0>(t285);
        // spectrum block of 59
        const V t583 = c[115] * t582;
        const V t584 = x0r - t583;
        const P t585 = shuffled<1, 3>(t542, t437);
        const P t586 = c[59] * t585;
        const P t587 = shuffled<1, 0>(t585);
        const P t588 = P(c[60], -c[60]) * t587;
        const P t589 = t586 + t588;
        const P t590 = shuffled<0, 2>(t383, t499);
        const P t591 = c[61] * t590;
        const P t592 = shuffled<1, 0>(t590);
        const P t593 = P(c[62], -c[62]) * t592;
        const P t594 = t591 + t593;
        const P t595 = shuffled<1, 3>(t421, t526);
        const P t596 = P(-c[63], c[63]) * t595;
        const P t597 = shuffled<1, 0>(t595);
        const P t598 = c[64] * t597;
        const P t599 = t596 + t598;
        const P t600 = shuffled<0, 2>(t438, t555);
        const P t601 = P(-c[65], c[65]) * t600;
        const P t602 = shuffled<1, 0>(t600);
        const P t603 = c[66] * t602;
        const P t604 = t601 + t603;
        const P t605 = shuffled<1, 3>(t580, t425);
        const P t606 = c[67] * t605;
        const P t607 = shuffled<1, 0>(t605);
        const P t608 = P(c[68], -c[68]) * t607;
        const P t609 = t606 + t608;
        const P t610 = shuffled<0, 2>(t581, t450);
        const P t611 = c[69] * t610;
        const P t612 = shuffled<1, 0>(t610);
        const P t613 = P(c[70], -c[70]) * t612;
        const P t614 = t611 + t613;
        const P t615 = shuffled<1, 3>(t463, t554);
        const P t616 = P(-c[71], c[71]) * t615;
        const P t617 = shuffled<1, 0>(t615);
        const P t618 = c[72] * t617;
        const P t619 = t616 + t618;
        const P t620 = shuffled<0, 2>(t513, t409);
        const P t621 = c[73] * t620;
        const P t622 = shuffled<1, 0>(t620);
        const P t623 = P(c[74], -c[74]) * t622;
        const P t624 = t621 + t623;
        const P t625 = shuffled<1, 3>(t451, t567);
        const P t626 = P(-c[75], c[75]) * t625;
        const P t627 = shuffled<1, 0>(t625);
        const P t628 = c[76] * t627;
        const P t629 = t626 + t628;
        const P t630 = shuffled<0, 2>(t538, t396);
        const P t631 = c[77] * t630;
        const P t632 = shuffled<1, 0>(t630);
        const P t633 = P(c[78], -c[78]) * t632;
        const P t634 = t631 + t633;
        const P t635 = shuffled<1, 3>(t422, t525);
        const P t636 = c[79] * t635;
        const P t637 = shuffled<1, 0>(t635);
        const P t638 = P(-c[80], c[80]) * t637;
        const P t639 = t636 + t638;
        const P t640 = shuffled<0, 2>(t395, t539);
        const P t641 = P(-c[81], c[81]) * t640;
        const P t642 = shuffled<1, 0>(t640);
        const P t643 = c[82] * t642;
        const P t644 = t641 + t643;
        const P t645 = shuffled<1, 3>(t568, t464);
        const P t646 = c[83] * t645;
        const P t647 = shuffled<1, 0>(t645);
        const P t648 = P(c[84], -c[84]) * t647;
        const P t649 = t646 + t648;
        const P t650 = shuffled<0, 2>(t512, t408);
        const P t651 = c[85] * t650;
        const P t652 = shuffled<1, 0>(t650);
        const P t653 = P(c[86], -c[86]) * t652;
        const P t654 = t651 + t653;
        const P t655 = shuffled<1, 3>(t408, t512);
        const P t656 = P(-c[87], c[87]) * t655;
        const P t657 = shuffled<1, 0>(t655);
        const P t658 = c[88] * t657;
        const P t659 = t656 + t658;
        const P t660 = shuffled<0, 2>(t464, t568);
        const P t661 = c[89] * t660;
        const P t662 = shuffled<1, 0>(t660);
        const P t663 = P(c[90], -c[90]) * t662;
        const P t664 = t661 + t663;
        const P t665 = shuffled<1, 3>(t395, t539);
        const P t666 = c[91] * t665;
        const P t667 = shuffled<1, 0>(t665);
        const P t668 = P(c[92], -c[92]) * t667;
        const P t669 = t666 + t668;
        const P t670 = shuffled<0, 2>(t422, t525);
        const P t671 = c[93] * t670;
        const P t672 = shuffled<1, 0>(t670);
        const P t673 = P(-c[94], c[94]) * t672;
        const P t674 = t671 + t673;
        const P t675 = shuffled<1, 3>(t396, t538);
        const P t676 = P(-c[95], c[95]) * t675;
        const P t677 = shuffled<1, 0>(t675);
        const P t678 = c[96] * t677;
        const P t679 = t676 + t678;
        const P t680 = shuffled<0, 2>(t567, t451);
        const P t681 = c[97] * t680;
        const P t682 = shuffled<1, 0>(t680);
        const P t683 = P(c[98], -c[98]) * t682;
        const P t684 = t681 + t683;
        const P t685 = shuffled<1, 3>(t409, t513);
        const P t686 = c[99] * t685;
        const P t687 = shuffled<1, 0>(t685);
        const P t688 = P(c[100], -c[100]) * t687;
        const P t689 = t686 + t688;
        const P t690 = shuffled<0, 2>(t554, t463);
        const P t691 = c[101] * t690;
        const P t692 = shuffled<1, 0>(t690);
        const P t693 = P(c[102], -c[102]) * t692;
        const P t694 = t691 + t693;
        const P t695 = shuffled<1, 3>(t581, t450);
        const P t696 = c[103] * t695;
        const P t697 = shuffled<1, 0>(t695);
        const P t698 = P(c[104], -c[104]) * t697;
        const P t699 = t696 + t698;
        const P t700 = shuffled<0, 2>(t425, t580);
        const P t701 = P(-c[105], c[105]) * t700;
        const P t702 = shuffled<1, 0>(t700);
        const P t703 = c[106] * t702;
        const P t704 = t701 + t703;
        const P t705 = shuffled<1, 3>(t438, t555);
        const P t706 = c[107] * t705;
        const P t707 = shuffled<1, 0>(t705);
        const P t708 = P(c[108], -c[108]) * t707;
        const P t709 = t706 + t708;
        const P t710 = shuffled<0, 2>(t526, t421);
        const P t711 = c[109] * t710;
        const P t712 = shuffled<1, 0>(t710);
        const P t713 = P(c[110], -c[110]) * t712;
        const P t714 = t711 + t713;
        const P t715 = shuffled<1, 3>(t383, t499);
        const P t716 = P(-c[111], c[111]) * t715;
        const P t717 = shuffled<1, 0>(t715);
        const P t718 = c[112] * t717;
        const P t719 = t716 + t718;
        const P t720 = shuffled<0, 2>(t542, t437);
        const P t721 = c[113] * t720;
        const P t722 = shuffled<1, 0>(t720);
        const P t723 = P(c[114], -c[114]) * t722;
        const P t724 = t721 + t723;
        const V t725 = part<1>(t285);
        const V t726 = c[116] * t725;
        // spectrum block of 2
        const V t727 = t584 - t726;
        const V t728 = t584 + t726;
        const P t729 = flipped<0, 1>(t719);
        // complex block of 2
        const P t730 = t594 + t729;
        const P t731 = t594 - t729;
        const P t732 = flipped<0, 1>(t709);
        // complex block of 2
        const P t733 = t604 + t732;
        const P t734 = t604 - t732;
        // complex block of 2
        const P t735 = t614 - t699;
        const P t736 = t614 + t699;
        const P t737 = flipped<0, 1>(t689);
        // complex block of 2
        const P t738 = t624 + t737;
        const P t739 = t624 - t737;
        // complex block of 2
        const P t740 = t634 + t679;
        const P t741 = t634 - t679;
        const P t742 = flipped<0, 1>(t669);
        // complex block of 2
        const P t743 = t644 + t742;
        const P t744 = t644 - t742;
        const P t745 = shuffled<0, 3>(t659, t654);
        const P t746 = shuffled<0, 3>(t654, t659);
        // complex block of 2
        const P t747 = t745 - t746;
        const P t748 = t654 + t659;
        const P t749 = flipped<0, 1>(t649);
        // complex block of 2
        const P t750 = t664 + t749;
        const P t751 = t664 - t749;
        // complex block of 2
        const P t752 = t674 + t639;
        const P t753 = shuffled<0, 3>(t674, t639);
        const P t754 = shuffled<0, 3>(t639, t674);
        const P t755 = t753 - t754;
        const P t756 = shuffled<0, 3>(t629, t684);
        const P t757 = shuffled<0, 3>(t684, t629);
        // complex block of 2
        const P t758 = t756 - t757;
        const P t759 = t684 + t629;
        // complex block of 2
        const P t760 = t694 + t619;
        const P t761 = t694 - t619;
        // complex block of 2
        const P t762 = t704 + t609;
        const P t763 = shuffled<0, 3>(t704, t609);
        const P t764 = shuffled<0, 3>(t609, t704);
        const P t765 = t763 - t764;
        // complex block of 2
        const P t766 = t714 + t599;
        const P t767 = t714 - t599;
        // complex block of 2
        const P t768 = t724 - t589;
        const P t769 = t724 + t589;
        const P t770 = shuffled<0, 2>(t730, t731);
        const P t771 = shuffled<0, 2>(t762, t765);
        // real block of 2
        const P t772 = t770 + t771;
        const P t773 = t770 - t771;
        const P t774 = shuffled<0, 2>(t738, t739);
        const P t775 = shuffled<0, 2>(t758, t759);
        const P t776 = flipped<0, 1>(t775);
        // real block of 2
        const P t777 = t774 + t776;
        const P t778 = t774 - t776;
        const P t779 = shuffled<0, 2>(t766, t767);
        const P t780 = shuffled<0, 2>(t760, t761);
        // real block of 2
        const P t781 = t779 + t780;
        const P t782 = t779 - t780;
        const P t783 = shuffled<0, 2>(t743, t744);
        const P t784 = shuffled<0, 2>(t768, t769);
        // real block of 2
        const P t785 = t783 + t784;
        const P t786 = t783 - t784;
        const P t787 = shuffled<0, 2>(t740, t741);
        const P t788 = shuffled<0, 2>(t733, t734);
        // real block of 2
        const P t789 = t787 + t788;
        const P t790 = t787 - t788;
        const P t791 = shuffled<0, 2>(t752, t755);
        const P t792 = shuffled<0, 2>(t750, t751);
        // real block of 2
        const P t793 = t791 + t792;
        const P t794 = t791 - t792;
        const P t795 = shuffled<0, 2>(t747, t736);
        const P t796 = shuffled<0, 2>(t735, t748);
        const P t797 = flipped<0, 1>(t796);
        // real block of 2
        const P t798 = t795 + t797;
        const P t799 = t795 - t797;
        // real block of 7, multiplier 2
        const P t800 = t777 + t798;
        const P t801 = t777 - t798;
        const P t802 = t793 + t781;
        const P t803 = t793 - t781;
        const P t804 = t789 + t785;
        const P t805 = t789 - t785;
        const P t806 = t800 + t802;
        const P t807 = t806 + t804;
        const P t808 = t807 + t772;
        const P t809 = c[2] * t800;
        const P t810 = t772 - t809;
        const P t811 = c[0] * t802;
        const P t812 = t810 - t811;
        const P t813 = c[1] * t804;
        const P t814 = t812 + t813;
        const P t815 = c[5] * t801;
        const P t816 = c[4] * t803;
        const P t817 = t815 + t816;
        const P t818 = c[3] * t805;
        const P t819 = t817 + t818;
        const P t820 = c[0] * t800;
        const P t821 = t772 - t820;
        const P t822 = c[1] * t802;
        const P t823 = t821 + t822;
        const P t824 = c[2] * t804;
        const P t825 = t823 - t824;
        const P t826 = c[4] * t801;
        const P t827 = c[3] * t803;
        const P t828 = t826 + t827;
        const P t829 = c[5] * t805;
        const P t830 = t828 - t829;
        const P t831 = c[1] * t800;
        const P t832 = c[2] * t802;
        const P t833 = t831 - t832;
        const P t834 = c[0] * t804;
        const P t835 = t833 - t834;
        const P t836 = t835 + t772;
        const P t837 = c[3] * t801;
        const P t838 = c[5] * t803;
        const P t839 = t837 - t838;
        const P t840 = c[4] * t805;
        const P t841 = t839 - t840;
        const P t842 = flipped<0, 1>(t799);
        // real block of 7, multiplier 2
        const P t843 = t778 + t842;
        const P t844 = t778 - t842;
        const P t845 = t794 + t782;
        const P t846 = t794 - t782;
        const P t847 = t790 + t786;
        const P t848 = t790 - t786;
        const P t849 = t843 + t845;
        const P t850 = t849 + t847;
        const P t851 = t850 + t773;
        const P t852 = c[2] * t843;
        const P t853 = t773 - t852;
        const P t854 = c[0] * t845;
        const P t855 = t853 - t854;
        const P t856 = c[1] * t847;
        const P t857 = t855 + t856;
        const P t858 = c[5] * t844;
        const P t859 = c[4] * t846;
        const P t860 = t858 + t859;
        const P t861 = c[3] * t848;
        const P t862 = t860 + t861;
        const P t863 = c[0] * t843;
        const P t864 = t773 - t863;
        const P t865 = c[1] * t845;
        const P t866 = t864 + t865;
        const P t867 = c[2] * t847;
        const P t868 = t866 - t867;
        const P t869 = c[4] * t844;
        const P t870 = c[3] * t846;
        const P t871 = t869 + t870;
        const P t872 = c[5] * t848;
        const P t873 = t871 - t872;
        const P t874 = c[1] * t843;
        const P t875 = c[2] * t845;
        const P t876 = t874 - t875;
        const P t877 = c[0] * t847;
        const P t878 = t876 - t877;
        const P t879 = t878 + t773;
        const P t880 = c[3] * t844;
        const P t881 = c[5] * t846;
        const P t882 = t880 - t881;
        const P t883 = c[4] * t848;
        const P t884 = t882 - t883;
        const P t885 = shuffled<1, 3>(t747, t748);
        const P t886 = shuffled<1, 3>(t738, t739);
        // real block of 7
        const P t887 = t885 - t886;
        const P t888 = t886 + t885;
        const P t889 = shuffled<1, 3>(t752, t755);
        const P t890 = shuffled<1, 3>(t766, t767);
        const P t891 = flipped<1, 0>(t890);
        const P t892 = t889 + t891;
        const P t893 = flipped<0, 1>(t889);
        const P t894 = t890 + t893;
        const P t895 = shuffled<1, 3>(t740, t741);
        const P t896 = shuffled<1, 3>(t743, t744);
        const P t897 = t895 + t896;
        const P t898 = t896 - t895;
        const P t899 = flipped<0, 1>(t892);
        const P t900 = t887 + t899;
        const P t901 = t900 - t897;
        const P t902 = shuffled<1, 3>(t730, t731);
        const P t903 = t901 + t902;
        const P t904 = c[1] * t887;
        const P t905 = P(-c[2], c[2]) * t892;
        const P t906 = t904 + t905;
        const P t907 = c[0] * t897;
        const P t908 = t906 + t907;
        const P t909 = t908 + t902;
        const P t910 = c[3] * t888;
        const P t911 = c[5] * t894;
        const P t912 = t910 + t911;
        const P t913 = c[4] * t898;
        const P t914 = t912 + t913;
        const P t915 = c[2] * t887;
        const P t916 = t902 - t915;
        const P t917 = P(-c[0], c[0]) * t892;
        const P t918 = t916 + t917;
        const P t919 = c[1] * t897;
        const P t920 = t918 - t919;
        const P t921 = c[5] * t888;
        const P t922 = c[4] * t894;
        const P t923 = t921 - t922;
        const P t924 = c[3] * t898;
        const P t925 = t923 - t924;
        const P t926 = c[0] * t887;
        const P t927 = t902 - t926;
        const P t928 = P(c[1], -c[1]) * t892;
        const P t929 = t927 + t928;
        const P t930 = c[2] * t897;
        const P t931 = t929 + t930;
        const P t932 = c[4] * t888;
        const P t933 = c[5] * t898;
        const P t934 = t932 + t933;
        const P t935 = c[3] * t894;
        const P t936 = t934 - t935;
        const P t937 = shuffled<1, 3>(t768, t769);
        const P t938 = shuffled<1, 3>(t750, t751);
        // real block of 7
        const P t939 = t937 - t938;
        const P t940 = t938 + t937;
        const P t941 = shuffled<1, 3>(t760, t761);
        const P t942 = shuffled<1, 3>(t735, t736);
        const P t943 = t941 + t942;
        const P t944 = t941 - t942;
        const P t945 = shuffled<1, 3>(t762, t759);
        const P t946 = shuffled<1, 3>(t758, t765);
        const P t947 = flipped<1, 0>(t946);
        const P t948 = t945 + t947;
        const P t949 = flipped<0, 1>(t945);
        const P t950 = t946 + t949;
        const P t951 = t939 + t943;
        const P t952 = flipped<0, 1>(t948);
        const P t953 = t951 + t952;
        const P t954 = shuffled<1, 3>(t733, t734);
        const P t955 = t953 + t954;
        const P t956 = c[1] * t939;
        const P t957 = c[2] * t943;
        const P t958 = t956 - t957;
        const P t959 = P(-c[0], c[0]) * t948;
        const P t960 = t958 + t959;
        const P t961 = t960 + t954;
        const P t962 = c[3] * t940;
        const P t963 = c[5] * t944;
        const P t964 = t962 + t963;
        const P t965 = P(-c[4], c[4]) * t950;
        const P t966 = t964 + t965;
        const P t967 = c[2] * t939;
        const P t968 = t954 - t967;
        const P t969 = c[0] * t943;
        const P t970 = t968 - t969;
        const P t971 = P(c[1], -c[1]) * t948;
        const P t972 = t970 + t971;
        const P t973 = c[5] * t940;
        const P t974 = c[3] * t950;
        const P t975 = P(c[4], -c[4]) * t944;
        const P t976 = shuffled<0, 3>(t974, t975);
        const P t977 = t973 + t976;
        const P t978 = shuffled<0, 3>(t975, t974);
        const P t979 = t977 - t978;
        const P t980 = c[0] * t939;
        const P t981 = t954 - t980;
        const P t982 = c[1] * t943;
        const P t983 = t981 + t982;
        const P t984 = P(-c[2], c[2]) * t948;
        const P t985 = t983 + t984;
        const P t986 = c[4] * t940;
        const P t987 = P(-c[3], c[3]) * t944;
        const P t988 = c[5] * t950;
        const P t989 = shuffled<0, 3>(t987, t988);
        const P t990 = t986 + t989;
        const P t991 = shuffled<0, 3>(t988, t987);
        const P t992 = t990 - t991;
        // skew block of 14
        const P t993 = c[5] * t985;
        const P t994 = c[2] * t992;
        const P t995 = t993 - t994;
        const P t996 = c[5] * t992;
        const P t997 = c[2] * t985;
        const P t998 = t996 + t997;
        // complex block of 2
        const P t999 = t931 + t995;
        const P t1000 = t936 + t998;
        const P t1001 = t931 - t995;
        const P t1002 = t998 - t936;
        // skew block of 14
        const P t1003 = c[3] * t972;
        const P t1004 = c[1] * t979;
        const P t1005 = t1003 - t1004;
        const P t1006 = c[3] * t979;
        const P t1007 = c[1] * t972;
        const P t1008 = t1006 + t1007;
        // complex block of 2
        const P t1009 = t920 + t1005;
        const P t1010 = t925 + t1008;
        const P t1011 = t920 - t1005;
        const P t1012 = t1008 - t925;
        // skew block of 14
        const P t1013 = c[4] * t961;
        const P t1014 = c[0] * t966;
        const P t1015 = t1013 - t1014;
        const P t1016 = c[4] * t966;
        const P t1017 = c[0] * t961;
        const P t1018 = t1016 + t1017;
        // complex block of 2
        const P t1019 = t909 + t1015;
        const P t1020 = t914 + t1018;
        const P t1021 = t909 - t1015;
        const P t1022 = t1018 - t914;
        const P t1023 = joined(t727, t728);
        // spectrum block of 29, multiplier 2
        const P t1024 = c[9] * t808;
        const P t1025 = t1023 - t1024;
        const P t1026 = c[35] * t999;
        const P t1027 = c[36] * t1000;
        const P t1028 = t1026 + t1027;
        const P t1029 = c[35] * t1000;
        const P t1030 = c[36] * t999;
        const P t1031 = t1029 - t1030;
        const P t1032 = c[37] * t879;
        const P t1033 = c[38] * t884;
        const P t1034 = t1032 + t1033;
        const P t1035 = c[38] * t879;
        const P t1036 = c[37] * t884;
        const P t1037 = t1035 - t1036;
        const P t1038 = c[39] * t1009;
        const P t1039 = c[40] * t1010;
        const P t1040 = t1038 - t1039;
        const P t1041 = c[39] * t1010;
        const P t1042 = c[40] * t1009;
        const P t1043 = t1041 + t1042;
        const P t1044 = c[41] * t814;
        const P t1045 = c[42] * t819;
        const P t1046 = t1044 - t1045;
        const P t1047 = c[41] * t819;
        const P t1048 = c[42] * t814;
        const P t1049 = t1047 + t1048;
        const P t1050 = c[43] * t1020;
        const P t1051 = c[44] * t1019;
        const P t1052 = t1050 - t1051;
        const P t1053 = c[44] * t1020;
        const P t1054 = c[43] * t1019;
        const P t1055 = t1053 + t1054;
        const P t1056 = c[45] * t868;
        const P t1057 = c[46] * t873;
        const P t1058 = t1056 - t1057;
        const P t1059 = c[45] * t873;
        const P t1060 = c[46] * t868;
        const P t1061 = t1059 + t1060;
        const P t1062 = c[7] * t903;
        const P t1063 = c[8] * t955;
        const P t1064 = t1062 - t1063;
        const P t1065 = c[7] * t955;
        const P t1066 = c[8] * t903;
        const P t1067 = t1065 + t1066;
        const P t1068 = c[47] * t825;
        const P t1069 = c[48] * t830;
        const P t1070 = t1068 - t1069;
        const P t1071 = c[47] * t830;
        const P t1072 = c[48] * t825;
        const P t1073 = t1071 + t1072;
        const P t1074 = c[49] * t1021;
        const P t1075 = c[50] * t1022;
        const P t1076 = t1074 + t1075;
        const P t1077 = c[50] * t1021;
        const P t1078 = c[49] * t1022;
        const P t1079 = t1077 - t1078;
        const P t1080 = c[51] * t862;
        const P t1081 = c[52] * t857;
        const P t1082 = t1080 - t1081;
        const P t1083 = c[52] * t862;
        const P t1084 = c[51] * t857;
        const P t1085 = t1083 + t1084;
        const P t1086 = c[53] * t1011;
        const P t1087 = c[54] * t1012;
        const P t1088 = t1086 - t1087;
        const P t1089 = c[53] * t1012;
        const P t1090 = c[54] * t1011;
        const P t1091 = t1089 + t1090;
        const P t1092 = c[55] * t836;
        const P t1093 = c[56] * t841;
        const P t1094 = t1092 + t1093;
        const P t1095 = c[55] * t841;
        const P t1096 = c[56] * t836;
        const P t1097 = t1095 - t1096;
        const P t1098 = c[57] * t1001;
        const P t1099 = c[58] * t1002;
        const P t1100 = t1098 + t1099;
        const P t1101 = c[57] * t1002;
        const P t1102 = c[58] * t1001;
        const P t1103 = t1101 - t1102;
        // spectrum block of 7, multiplier 4
        const P t1104 = t1046 + t1070;
        const P t1105 = t1104 + t1094;
        const P t1106 = t1105 + t1025;
        const P t1107 = c[1] * t1046;
        const P t1108 = c[2] * t1070;
        const P t1109 = t1107 - t1108;
        const P t1110 = c[0] * t1094;
        const P t1111 = t1109 - t1110;
        const P t1112 = t1111 + t1025;
        const P t1113 = c[5] * t1073;
        const P t1114 = c[3] * t1049;
        const P t1115 = t1113 - t1114;
        const P t1116 = c[4] * t1097;
        const P t1117 = t1115 + t1116;
        const P t1118 = t1112 - t1117;
        const P t1119 = t1112 + t1117;
        const P t1120 = c[2] * t1046;
        const P t1121 = t1025 - t1120;
        const P t1122 = c[0] * t1070;
        const P t1123 = t1121 - t1122;
        const P t1124 = c[1] * t1094;
        const P t1125 = t1123 + t1124;
        const P t1126 = c[5] * t1049;
        const P t1127 = c[4] * t1073;
        const P t1128 = t1126 + t1127;
        const P t1129 = c[3] * t1097;
        const P t1130 = t1128 + t1129;
        const P t1131 = t1125 + t1130;
        const P t1132 = t1125 - t1130;
        const P t1133 = c[0] * t1046;
        const P t1134 = t1025 - t1133;
        const P t1135 = c[1] * t1070;
        const P t1136 = t1134 + t1135;
        const P t1137 = c[2] * t1094;
        const P t1138 = t1136 - t1137;
        const P t1139 = c[4] * t1049;
        const P t1140 = c[3] * t1073;
        const P t1141 = t1139 + t1140;
        const P t1142 = c[5] * t1097;
        const P t1143 = t1142 - t1141;
        const P t1144 = t1138 - t1143;
        const P t1145 = t1138 + t1143;
        // complex block of 7, multiplier 4
        const P t1146 = t1091 + t1043;
        const P t1147 = t1088 + t1040;
        const P t1148 = t1043 - t1091;
        const P t1149 = t1088 - t1040;
        const P t1150 = t1031 + t1103;
        const P t1151 = t1028 + t1100;
        const P t1152 = t1103 - t1031;
        const P t1153 = t1100 - t1028;
        const P t1154 = t1055 + t1079;
        const P t1155 = t1052 + t1076;
        const P t1156 = t1079 - t1055;
        const P t1157 = t1052 - t1076;
        const P t1158 = t1146 + t1150;
        const P t1159 = t1158 + t1154;
        const P t1160 = t1147 - t1151;
        const P t1161 = t1160 + t1155;
        const P t1162 = t1159 + t1067;
        const P t1163 = t1161 + t1064;
        const P t1164 = c[1] * t1146;
        const P t1165 = t1067 + t1164;
        const P t1166 = c[2] * t1150;
        const P t1167 = t1166 - t1165;
        const P t1168 = c[0] * t1154;
        const P t1169 = t1167 + t1168;
        const P t1170 = c[1] * t1147;
        const P t1171 = c[2] * t1151;
        const P t1172 = t1170 + t1171;
        const P t1173 = c[0] * t1155;
        const P t1174 = t1172 - t1173;
        const P t1175 = t1174 + t1064;
        const P t1176 = c[3] * t1148;
        const P t1177 = c[5] * t1152;
        const P t1178 = t1176 - t1177;
        const P t1179 = c[4] * t1156;
        const P t1180 = t1178 - t1179;
        const P t1181 = c[3] * t1149;
        const P t1182 = c[5] * t1153;
        const P t1183 = t1181 - t1182;
        const P t1184 = c[4] * t1157;
        const P t1185 = t1183 - t1184;
        const P t1186 = t1169 + t1185;
        const P t1187 = t1175 - t1180;
        const P t1188 = t1169 - t1185;
        const P t1189 = t1175 + t1180;
        const P t1190 = c[2] * t1146;
        const P t1191 = c[0] * t1150;
        const P t1192 = t1190 + t1191;
        const P t1193 = c[1] * t1154;
        const P t1194 = t1192 - t1193;
        const P t1195 = t1194 - t1067;
        const P t1196 = c[2] * t1147;
        const P t1197 = t1064 - t1196;
        const P t1198 = c[0] * t1151;
        const P t1199 = t1197 + t1198;
        const P t1200 = c[1] * t1155;
        const P t1201 = t1199 + t1200;
        const P t1202 = c[5] * t1148;
        const P t1203 = c[4] * t1152;
        const P t1204 = t1202 + t1203;
        const P t1205 = c[3] * t1156;
        const P t1206 = t1204 + t1205;
        const P t1207 = c[5] * t1149;
        const P t1208 = c[4] * t1153;
        const P t1209 = t1207 + t1208;
        const P t1210 = c[3] * t1157;
        const P t1211 = t1209 + t1210;
        const P t1212 = t1195 + t1211;
        const P t1213 = t1201 - t1206;
        const P t1214 = t1195 - t1211;
        const P t1215 = t1201 + t1206;
        const P t1216 = c[0] * t1146;
        const P t1217 = c[1] * t1150;
        const P t1218 = t1216 - t1217;
        const P t1219 = c[2] * t1154;
        const P t1220 = t1218 + t1219;
        const P t1221 = t1220 - t1067;
        const P t1222 = c[0] * t1147;
        const P t1223 = t1064 - t1222;
        const P t1224 = c[1] * t1151;
        const P t1225 = t1223 - t1224;
        const P t1226 = c[2] * t1155;
        const P t1227 = t1225 - t1226;
        const P t1228 = c[4] * t1148;
        const P t1229 = c[3] * t1152;
        const P t1230 = t1228 + t1229;
        const P t1231 = c[5] * t1156;
        const P t1232 = t1230 - t1231;
        const P t1233 = c[4] * t1149;
        const P t1234 = c[3] * t1153;
        const P t1235 = t1233 + t1234;
        const P t1236 = c[5] * t1157;
        const P t1237 = t1235 - t1236;
        const P t1238 = t1221 + t1237;
        const P t1239 = t1227 - t1232;
        const P t1240 = t1221 - t1237;
        const P t1241 = t1227 + t1232;
        // spectrum block of 7, multiplier 4
        const P t1242 = t1082 + t1058;
        const P t1243 = t1242 + t1034;
        // spectrum block of 29, multiplier 2
        const P t1244 = c[34] * t851;
        // spectrum block of 7, multiplier 4
        const P t1245 = t1243 - t1244;
        const P t1246 = c[1] * t1082;
        const P t1247 = c[2] * t1058;
        const P t1248 = t1246 - t1247;
        const P t1249 = c[0] * t1034;
        const P t1250 = t1248 - t1249;
        const P t1251 = t1250 - t1244;
        const P t1252 = c[3] * t1085;
        const P t1253 = c[5] * t1061;
        const P t1254 = t1252 + t1253;
        const P t1255 = c[4] * t1037;
        const P t1256 = t1254 - t1255;
        const P t1257 = t1251 - t1256;
        const P t1258 = t1251 + t1256;
        const P t1259 = c[2] * t1082;
        const P t1260 = t1244 + t1259;
        const P t1261 = c[0] * t1058;
        const P t1262 = t1260 + t1261;
        const P t1263 = c[1] * t1034;
        const P t1264 = t1263 - t1262;
        const P t1265 = c[5] * t1085;
        const P t1266 = c[4] * t1061;
        const P t1267 = t1265 - t1266;
        const P t1268 = c[3] * t1037;
        const P t1269 = t1267 + t1268;
        const P t1270 = t1264 - t1269;
        const P t1271 = t1264 + t1269;
        const P t1272 = c[0] * t1082;
        const P t1273 = t1244 + t1272;
        const P t1274 = c[1] * t1058;
        const P t1275 = t1274 - t1273;
        const P t1276 = c[2] * t1034;
        const P t1277 = t1275 - t1276;
        const P t1278 = c[4] * t1085;
        const P t1279 = c[3] * t1061;
        const P t1280 = t1278 - t1279;
        const P t1281 = c[5] * t1037;
        const P t1282 = t1280 - t1281;
        const P t1283 = t1277 - t1282;
        const P t1284 = t1277 + t1282;
        // spectrum block of 2
        const P t1285 = t1106 + t1245;
        const P t1286 = t1106 - t1245;
        // spectrum block of 2
        const P t1287 = t1285 + t1163;
        io.out(15, 44, t1287);
        const P t1288 = t1285 - t1163;
        io.out(4, 55, t1288);
        // spectrum block of 2
        const P t1289 = t1286 - t1162;
        io.out(35, 24, t1289);
        const P t1290 = t1286 + t1162;
        io.out(27, 32, t1290);
        // spectrum block of 2
        const P t1291 = t1145 + t1284;
        const P t1292 = t1145 - t1284;
        // spectrum block of 2
        const P t1293 = t1291 + t1241;
        io.out(7, 52, t1293);
        const P t1294 = t1291 - t1241;
        io.out(17, 42, t1294);
        // spectrum block of 2
        const P t1295 = t1292 + t1240;
        io.out(46, 13, t1295);
        const P t1296 = t1292 - t1240;
        io.out(9, 50, t1296);
        // spectrum block of 2
        const P t1297 = t1118 + t1257;
        const P t1298 = t1118 - t1257;
        // spectrum block of 2
        const P t1299 = t1297 + t1187;
        io.out(25, 34, t1299);
        const P t1300 = t1297 - t1187;
        io.out(26, 33, t1300);
        // spectrum block of 2
        const P t1301 = t1298 + t1186;
        io.out(57, 2, t1301);
        const P t1302 = t1298 - t1186;
        io.out(29, 30, t1302);
        // spectrum block of 2
        const P t1303 = t1132 + t1271;
        const P t1304 = t1132 - t1271;
        // spectrum block of 2
        const P t1305 = t1303 + t1215;
        io.out(20, 39, t1305);
        const P t1306 = t1303 - t1215;
        io.out(3, 56, t1306);
        // spectrum block of 2
        const P t1307 = t1304 + t1214;
        io.out(28, 31, t1307);
        const P t1308 = t1304 - t1214;
        io.out(19, 40, t1308);
        // spectrum block of 2
        const P t1309 = t1131 + t1270;
        const P t1310 = t1131 - t1270;
        // spectrum block of 2
        const P t1311 = t1309 + t1213;
        io.out(36, 23, t1311);
        const P t1312 = t1309 - t1213;
        io.out(41, 18, t1312);
        // spectrum block of 2
        const P t1313 = t1310 + t1212;
        io.out(12, 47, t1313);
        const P t1314 = t1310 - t1212;
        io.out(5, 54, t1314);
        // spectrum block of 2
        const P t1315 = t1119 + t1258;
        const P t1316 = t1119 - t1258;
        // spectrum block of 2
        const P t1317 = t1315 + t1189;
        io.out(21, 38, t1317);
        const P t1318 = t1315 - t1189;
        io.out(45, 14, t1318);
        // spectrum block of 2
        const P t1319 = t1316 + t1188;
        io.out(48, 11, t1319);
        const P t1320 = t1316 - t1188;
        io.out(16, 43, t1320);
        // spectrum block of 2
        const P t1321 = t1144 + t1283;
        const P t1322 = t1144 - t1283;
        // spectrum block of 2
        const P t1323 = t1321 + t1239;
        io.out(22, 37, t1323);
        const P t1324 = t1321 - t1239;
        io.out(51, 8, t1324);
        // spectrum block of 2
        const P t1325 = t1322 + t1238;
        io.out(49, 10, t1325);
        const P t1326 = t1322 - t1238;
        io.out(53, 6, t1326);
        // spectrum block of 29, multiplier 2
        const P t1327 = t1023 + t808;
        io.out(1, 58, t1327);
        // spectrum block of 59
        const V t1328 = x0r + t582;
        io.out(0, t1328);
    }
};

}  // namespace zulg
