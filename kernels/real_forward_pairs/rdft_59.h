// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 59.
// Forward DFT of 59 real points, Rader 29, 2; two lanes to a register.
// 405 sums, 285 differences, 496 products of registers, which do the 2353 steps of the graph, those with
// `scale` included; 188 shuffles, 42 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<59> {
    static constexpr int steps = 2353;  // with `scale`
    static constexpr double inverseRoot = 0.13018891098082389;  // 1/sqrt(59), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.3777140697119294,  // c[6]: P[7] of 29
        0.07274108340629196,  // c[7]: Q[7] of 29
        0.21044290248272673,  // c[8]: P[1] of 29
        0.3219828698364479,  // c[9]: -Q[1] of 29
        0.3298297662985413,  // c[10]: P[2] of 29
        0.19791793485411824,  // c[11]: Q[2] of 29
        0.384463442096457,  // c[12]: P[3] of 29
        0.012126226322052493,  // c[13]: Q[3] of 29
        0.3609030660383976,  // c[14]: P[4] of 29
        0.1330720128259635,  // c[15]: -Q[4] of 29
        0.36147698792300353,  // c[16]: -Q[5] of 29
        0.13150502224471186,  // c[17]: -P[5] of 29
        0.38084126020120657,  // c[18]: P[6] of 29
        0.054028864524680344,  // c[19]: -Q[6] of 29
        0.2786653006997481,  // c[20]: P[8] of 29
        0.26515058713755163,  // c[21]: Q[8] of 29
        0.13446199615788765,  // c[22]: Q[9] of 29
        0.3603875070846735,  // c[23]: -P[9] of 29
        0.2987602224736465,  // c[24]: -P[10] of 29
        0.24228395147216553,  // c[25]: -Q[10] of 29
        0.019970959548377194,  // c[26]: P[11] of 29
        0.38413584113980626,  // c[27]: Q[11] of 29
        0.08413784916151361,  // c[28]: P[12] of 29
        0.3753398540149231,  // c[29]: -Q[12] of 29
        0.1800860537573993,  // c[30]: P[13] of 29
        0.3398943908268515,  // c[31]: -Q[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
        0.014845190038075228,  // c[34]: -P[1] of 59
        0.26445074818613296,  // c[35]: -Q[1] of 59
        0.26114224835741606,  // c[36]: P[2] of 59
        0.044264026096884644,  // c[37]: -Q[2] of 59
        0.25083970924567417,  // c[38]: P[3] of 59
        0.08505303139228909,  // c[39]: -Q[3] of 59
        0.015691052751184383,  // c[40]: -P[4] of 59
        0.2644019076085337,  // c[41]: Q[4] of 59
        0.02305879622432487,  // c[42]: -P[5] of 59
        0.26386145948235246,  // c[43]: Q[5] of 59
        0.2561089569283855,  // c[44]: Q[6] of 59
        0.06754835352935287,  // c[45]: P[6] of 59
        0.25249265337152266,  // c[46]: P[7] of 59
        0.08001273571676054,  // c[47]: -Q[7] of 59
        0.11501162603233117,  // c[48]: Q[8] of 59
        0.238593595389464,  // c[49]: P[8] of 59
        0.0638323763819381,  // c[50]: -P[9] of 59
        0.2570603151186636,  // c[51]: -Q[9] of 59
        0.240603592321257,  // c[52]: Q[10] of 59
        0.11074515450157817,  // c[53]: P[10] of 59
        0.21629167322460174,  // c[54]: -P[11] of 59
        0.15288063964143453,  // c[55]: Q[11] of 59
        0.24939428176067635,  // c[56]: -P[12] of 59
        0.08920241088977601,  // c[57]: Q[12] of 59
        0.11725683642615767,  // c[58]: -P[13] of 59
        0.2374982361930323,  // c[59]: Q[13] of 59
        0.22888251085220956,  // c[60]: Q[14] of 59
        0.13329431386769738,  // c[61]: -P[14] of 59
        0.26378234639543136,  // c[62]: -P[15] of 59
        0.02394684976343933,  // c[63]: -Q[15] of 59
        0.23880474209212857,  // c[64]: P[16] of 59
        0.11457256668934328,  // c[65]: -Q[16] of 59
        0.1612612423114406,  // c[66]: Q[17] of 59
        0.210117561407044,  // c[67]: P[17] of 59
        0.23429573625085479,  // c[68]: P[18] of 59
        0.12353172004850395,  // c[69]: -Q[18] of 59
        0.2377423799688404,  // c[70]: P[19] of 59
        0.11676103224202658,  // c[71]: -Q[19] of 59
        0.21542011720118803,  // c[72]: Q[20] of 59
        0.15410629769252931,  // c[73]: -P[20] of 59
        0.2309299428168255,  // c[74]: Q[21] of 59
        0.1297148387582923,  // c[75]: P[21] of 59
        0.1670393661682332,  // c[76]: Q[22] of 59
        0.20555395406945343,  // c[77]: P[22] of 59
        0.0487750221655463,  // c[78]: -P[23] of 59
        0.26033742546207705,  // c[79]: -Q[23] of 59
        0.26473942475012313,  // c[80]: -P[24] of 59
        0.008222825940389141,  // c[81]: -Q[24] of 59
        0.12154489634858227,  // c[82]: Q[25] of 59
        0.23533256479944387,  // c[83]: P[25] of 59
        0.14536461098959946,  // c[84]: Q[26] of 59
        0.2214129800967289,  // c[85]: P[26] of 59
        0.25925932295435405,  // c[86]: -P[27] of 59
        0.05421421718259892,  // c[87]: -Q[27] of 59
        0.0854499159287465,  // c[88]: Q[28] of 59
        0.2507047860557158,  // c[89]: P[28] of 59
        0.13741940099767344,  // c[90]: P[6] of 29
        0.35927022128602587,  // c[91]: Q[6] of 29
        0.37569917287106036,  // c[92]: P[10] of 29
        0.0825185747421179,  // c[93]: -Q[10] of 29
        0.21129297752958617,  // c[94]: P[2] of 29
        0.32142566997698113,  // c[95]: Q[2] of 29
        0.2670821358430261,  // c[96]: -Q[1] of 29
        0.2768145884649087,  // c[97]: -P[1] of 29
        0.2491897008367598,  // c[98]: Q[3] of 29
        0.29302504444220384,  // c[99]: -P[3] of 29
        0.3290592701972177,  // c[100]: P[4] of 29
        0.19919633623825483,  // c[101]: Q[4] of 29
        0.26862162181749166,  // c[102]: -P[5] of 29
        0.27532091814028564,  // c[103]: -Q[5] of 29
        0.3205115713047231,  // c[104]: -P[8] of 29
        0.21267702351981235,  // c[105]: Q[8] of 29
        0.38303879792644835,  // c[106]: -Q[9] of 29
        0.035220206650882144,  // c[107]: -P[9] of 29
        0.28787780453569184,  // c[108]: -Q[11] of 29
        0.25511870438911255,  // c[109]: P[11] of 29
        0.0870482765930398,  // c[110]: P[12] of 29
        0.37467556794599116,  // c[111]: Q[12] of 29
        0.3714454456857387,  // c[112]: Q[13] of 29
        0.0999373031094614,  // c[113]: P[13] of 29
        0.017241379310344827,  // c[114]: 1/58
        0.13243354737704496,  // c[115]: -beta of 59
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x51_8 = io.in(51, 8);
        const P x17_42 = io.in(17, 42);
        // real block of 7, multiplier 4
        const P t0 = x51_8 + x17_42;
        const P t1 = x51_8 - x17_42;
        const P x26_33 = io.in(26, 33);
        const P x45_14 = io.in(45, 14);
        const P t2 = x26_33 + x45_14;
        const P t3 = x26_33 - x45_14;
        const P x3_56 = io.in(3, 56);
        const P x41_18 = io.in(41, 18);
        const P t4 = x3_56 + x41_18;
        const P t5 = x3_56 - x41_18;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x4_55 = io.in(4, 55);
        const P t8 = t7 + x4_55;
        const P t9 = c[0] * t0;
        const P t10 = x4_55 - t9;
        const P t11 = c[1] * t2;
        const P t12 = t10 + t11;
        const P t13 = c[2] * t4;
        const P t14 = t12 - t13;
        const P t15 = c[3] * t1;
        const P t16 = c[4] * t3;
        const P t17 = t15 + t16;
        const P t18 = c[5] * t5;
        const P t19 = t17 - t18;
        const P t20 = c[1] * t0;
        const P t21 = c[2] * t2;
        const P t22 = t20 - t21;
        const P t23 = c[0] * t4;
        const P t24 = t22 - t23;
        const P t25 = t24 + x4_55;
        const P t26 = c[5] * t3;
        const P t27 = c[3] * t5;
        const P t28 = t26 + t27;
        const P t29 = c[4] * t1;
        const P t30 = t28 - t29;
        const P t31 = c[2] * t0;
        const P t32 = x4_55 - t31;
        const P t33 = c[0] * t2;
        const P t34 = t32 - t33;
        const P t35 = c[1] * t4;
        const P t36 = t34 + t35;
        const P t37 = c[5] * t1;
        const P t38 = c[3] * t3;
        const P t39 = t37 + t38;
        const P t40 = c[4] * t5;
        const P t41 = t39 + t40;
        const P x49_10 = io.in(49, 10);
        const P x46_13 = io.in(46, 13);
        // real block of 7, multiplier 4
        const P t42 = x49_10 + x46_13;
        const P t43 = x49_10 - x46_13;
        const P x57_2 = io.in(57, 2);
        const P x48_11 = io.in(48, 11);
        const P t44 = x57_2 + x48_11;
        const P t45 = x57_2 - x48_11;
        const P x28_31 = io.in(28, 31);
        const P x12_47 = io.in(12, 47);
        const P t46 = x28_31 + x12_47;
        const P t47 = x28_31 - x12_47;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P x35_24 = io.in(35, 24);
        const P t50 = t49 + x35_24;
        const P t51 = c[0] * t42;
        const P t52 = x35_24 - t51;
        const P t53 = c[1] * t44;
        const P t54 = t52 + t53;
        const P t55 = c[2] * t46;
        const P t56 = t54 - t55;
        const P t57 = c[3] * t43;
        const P t58 = c[4] * t45;
        const P t59 = t57 + t58;
        const P t60 = c[5] * t47;
        const P t61 = t59 - t60;
        const P t62 = c[1] * t42;
        const P t63 = c[2] * t44;
        const P t64 = t62 - t63;
        const P t65 = c[0] * t46;
        const P t66 = t64 - t65;
        const P t67 = t66 + x35_24;
        const P t68 = c[5] * t45;
        const P t69 = c[3] * t47;
        const P t70 = t68 + t69;
        const P t71 = c[4] * t43;
        const P t72 = t70 - t71;
        const P t73 = c[2] * t42;
        const P t74 = x35_24 - t73;
        const P t75 = c[0] * t44;
        const P t76 = t74 - t75;
        const P t77 = c[1] * t46;
        const P t78 = t76 + t77;
        const P t79 = c[5] * t43;
        const P t80 = c[3] * t45;
        const P t81 = t79 + t80;
        const P t82 = c[4] * t47;
        const P t83 = t81 + t82;
        const P x22_37 = io.in(22, 37);
        const P x7_52 = io.in(7, 52);
        // real block of 7, multiplier 4
        const P t84 = x22_37 + x7_52;
        const P t85 = x22_37 - x7_52;
        const P x25_34 = io.in(25, 34);
        const P x21_38 = io.in(21, 38);
        const P t86 = x25_34 + x21_38;
        const P t87 = x25_34 - x21_38;
        const P x20_39 = io.in(20, 39);
        const P x36_23 = io.in(36, 23);
        const P t88 = x20_39 + x36_23;
        const P t89 = x20_39 - x36_23;
        const P t90 = t84 + t86;
        const P t91 = t90 + t88;
        const P x15_44 = io.in(15, 44);
        const P t92 = t91 + x15_44;
        const P t93 = c[0] * t84;
        const P t94 = x15_44 - t93;
        const P t95 = c[1] * t86;
        const P t96 = t94 + t95;
        const P t97 = c[2] * t88;
        const P t98 = t96 - t97;
        const P t99 = c[3] * t85;
        const P t100 = c[4] * t87;
        const P t101 = t99 + t100;
        const P t102 = c[5] * t89;
        const P t103 = t101 - t102;
        const P t104 = c[1] * t84;
        const P t105 = c[2] * t86;
        const P t106 = t104 - t105;
        const P t107 = c[0] * t88;
        const P t108 = t106 - t107;
        const P t109 = t108 + x15_44;
        const P t110 = c[5] * t87;
        const P t111 = c[3] * t89;
        const P t112 = t110 + t111;
        const P t113 = c[4] * t85;
        const P t114 = t112 - t113;
        const P t115 = c[2] * t84;
        const P t116 = x15_44 - t115;
        const P t117 = c[0] * t86;
        const P t118 = t116 - t117;
        const P t119 = c[1] * t88;
        const P t120 = t118 + t119;
        const P t121 = c[5] * t85;
        const P t122 = c[3] * t87;
        const P t123 = t121 + t122;
        const P t124 = c[4] * t89;
        const P t125 = t123 + t124;
        const P x53_6 = io.in(53, 6);
        const P x9_50 = io.in(9, 50);
        // real block of 7, multiplier 4
        const P t126 = x53_6 + x9_50;
        const P t127 = x53_6 - x9_50;
        const P x29_30 = io.in(29, 30);
        const P x16_43 = io.in(16, 43);
        const P t128 = x29_30 + x16_43;
        const P t129 = x29_30 - x16_43;
        const P x19_40 = io.in(19, 40);
        const P x5_54 = io.in(5, 54);
        const P t130 = x19_40 + x5_54;
        const P t131 = x19_40 - x5_54;
        const P t132 = t126 + t128;
        const P t133 = t132 + t130;
        const P x27_32 = io.in(27, 32);
        const P t134 = t133 + x27_32;
        const P t135 = c[0] * t126;
        const P t136 = x27_32 - t135;
        const P t137 = c[1] * t128;
        const P t138 = t136 + t137;
        const P t139 = c[2] * t130;
        const P t140 = t138 - t139;
        const P t141 = c[3] * t127;
        const P t142 = c[4] * t129;
        const P t143 = t141 + t142;
        const P t144 = c[5] * t131;
        const P t145 = t143 - t144;
        const P t146 = c[1] * t126;
        const P t147 = c[2] * t128;
        const P t148 = t146 - t147;
        const P t149 = c[0] * t130;
        const P t150 = t148 - t149;
        const P t151 = t150 + x27_32;
        const P t152 = c[5] * t129;
        const P t153 = c[3] * t131;
        const P t154 = t152 + t153;
        const P t155 = c[4] * t127;
        const P t156 = t154 - t155;
        const P t157 = c[2] * t126;
        const P t158 = x27_32 - t157;
        const P t159 = c[0] * t128;
        const P t160 = t158 - t159;
        const P t161 = c[1] * t130;
        const P t162 = t160 + t161;
        const P t163 = c[5] * t127;
        const P t164 = c[3] * t129;
        const P t165 = t163 + t164;
        const P t166 = c[4] * t131;
        const P t167 = t165 + t166;
        // real block of 2
        const P t168 = t8 + t92;
        const P t169 = t8 - t92;
        // real block of 2
        const P t170 = t50 + t134;
        const P t171 = t50 - t134;
        // real block of 2
        const P t172 = t168 + t170;
        const P t173 = t168 - t170;
        // complex block of 2
        const P t174 = t14 + t98;
        const P t175 = t19 + t103;
        const P t176 = t14 - t98;
        const P t177 = t19 - t103;
        // complex block of 2
        const P t178 = t56 + t140;
        const P t179 = t61 + t145;
        const P t180 = t56 - t140;
        const P t181 = t61 - t145;
        // complex block of 2
        const P t182 = t174 + t178;
        const P t183 = t175 + t179;
        const P t184 = t174 - t178;
        const P t185 = t175 - t179;
        // complex block of 2
        const P t186 = t176 - t181;
        const P t187 = t177 + t180;
        const P t188 = t176 + t181;
        const P t189 = t177 - t180;
        // complex block of 2
        const P t190 = t25 + t109;
        const P t191 = t30 + t114;
        const P t192 = t25 - t109;
        const P t193 = t30 - t114;
        // complex block of 2
        const P t194 = t67 + t151;
        const P t195 = t72 + t156;
        const P t196 = t67 - t151;
        const P t197 = t72 - t156;
        // complex block of 2
        const P t198 = t190 + t194;
        const P t199 = t191 + t195;
        const P t200 = t190 - t194;
        const P t201 = t191 - t195;
        // complex block of 2
        const P t202 = t192 - t197;
        const P t203 = t193 + t196;
        const P t204 = t192 + t197;
        const P t205 = t193 - t196;
        // complex block of 2
        const P t206 = t36 + t120;
        const P t207 = t41 + t125;
        const P t208 = t36 - t120;
        const P t209 = t41 - t125;
        // complex block of 2
        const P t210 = t78 + t162;
        const P t211 = t83 + t167;
        const P t212 = t78 - t162;
        const P t213 = t83 - t167;
        // complex block of 2
        const P t214 = t206 + t210;
        const P t215 = t207 + t211;
        const P t216 = t206 - t210;
        const P t217 = t207 - t211;
        // complex block of 2
        const P t218 = t208 - t213;
        const P t219 = t209 + t212;
        const P t220 = t208 + t213;
        const P t221 = t209 - t212;
        const P x1_58 = io.in(1, 58);
        // real block of 29, multiplier 2
        const P t222 = x1_58 + t172;
        const P t223 = c[32] * t172;
        const P t224 = x1_58 - t223;
        const P t225 = c[8] * t204;
        const P t226 = c[9] * t205;
        const P t227 = t225 + t226;
        const P t228 = c[8] * t205;
        const P t229 = c[9] * t204;
        const P t230 = t228 - t229;
        const P t231 = c[10] * t216;
        const P t232 = c[11] * t217;
        const P t233 = t231 + t232;
        const P t234 = c[11] * t216;
        const P t235 = c[10] * t217;
        const P t236 = t234 - t235;
        const P t237 = c[12] * t188;
        const P t238 = c[13] * t189;
        const P t239 = t237 + t238;
        const P t240 = c[13] * t188;
        const P t241 = c[12] * t189;
        const P t242 = t240 - t241;
        const P t243 = c[14] * t182;
        const P t244 = c[15] * t183;
        const P t245 = t243 + t244;
        const P t246 = c[14] * t183;
        const P t247 = c[15] * t182;
        const P t248 = t246 - t247;
        const P t249 = c[16] * t221;
        const P t250 = c[17] * t220;
        const P t251 = t249 - t250;
        const P t252 = c[17] * t221;
        const P t253 = c[16] * t220;
        const P t254 = t252 + t253;
        const P t255 = c[18] * t200;
        const P t256 = c[19] * t201;
        const P t257 = t255 - t256;
        const P t258 = c[18] * t201;
        const P t259 = c[19] * t200;
        const P t260 = t258 + t259;
        const P t261 = c[6] * t169;
        const P t262 = c[7] * t171;
        const P t263 = t261 - t262;
        const P t264 = c[6] * t171;
        const P t265 = c[7] * t169;
        const P t266 = t264 + t265;
        const P t267 = c[20] * t198;
        const P t268 = c[21] * t199;
        const P t269 = t267 - t268;
        const P t270 = c[20] * t199;
        const P t271 = c[21] * t198;
        const P t272 = t270 + t271;
        const P t273 = c[22] * t219;
        const P t274 = c[23] * t218;
        const P t275 = t273 - t274;
        const P t276 = c[23] * t219;
        const P t277 = c[22] * t218;
        const P t278 = t276 + t277;
        const P t279 = c[24] * t184;
        const P t280 = c[25] * t185;
        const P t281 = t279 + t280;
        const P t282 = c[24] * t185;
        const P t283 = c[25] * t184;
        const P t284 = t282 - t283;
        const P t285 = c[26] * t186;
        const P t286 = c[27] * t187;
        const P t287 = t285 - t286;
        const P t288 = c[26] * t187;
        const P t289 = c[27] * t186;
        const P t290 = t288 + t289;
        const P t291 = c[28] * t214;
        const P t292 = c[29] * t215;
        const P t293 = t291 + t292;
        const P t294 = c[28] * t215;
        const P t295 = c[29] * t214;
        const P t296 = t294 - t295;
        const P t297 = c[30] * t202;
        const P t298 = c[31] * t203;
        const P t299 = t297 - t298;
        const P t300 = c[30] * t203;
        const P t301 = c[31] * t202;
        const P t302 = t300 + t301;
        const P t303 = c[33] * t173;
        // spectrum block of 2
        const P t304 = t224 - t303;
        const P t305 = t224 + t303;
        // complex block of 2
        const P t306 = t248 - t284;
        const P t307 = t245 - t281;
        const P t308 = t248 + t284;
        const P t309 = t245 + t281;
        // complex block of 2
        const P t310 = t272 + t260;
        const P t311 = t269 + t257;
        const P t312 = t272 - t260;
        const P t313 = t269 - t257;
        // complex block of 2
        const P t314 = t296 - t236;
        const P t315 = t293 + t233;
        const P t316 = t296 + t236;
        const P t317 = t293 - t233;
        // spectrum block of 7, multiplier 2
        const P t318 = t307 + t311;
        const P t319 = t318 + t315;
        const P t320 = t319 + t304;
        const P t321 = c[1] * t307;
        const P t322 = c[2] * t311;
        const P t323 = t321 - t322;
        const P t324 = c[0] * t315;
        const P t325 = t323 - t324;
        const P t326 = t325 + t304;
        const P t327 = c[4] * t306;
        const P t328 = c[5] * t310;
        const P t329 = t327 + t328;
        const P t330 = c[3] * t314;
        const P t331 = t329 + t330;
        const P t332 = t326 - t331;
        const P t333 = t326 + t331;
        const P t334 = c[2] * t307;
        const P t335 = t304 - t334;
        const P t336 = c[0] * t311;
        const P t337 = t335 - t336;
        const P t338 = c[1] * t315;
        const P t339 = t337 + t338;
        const P t340 = c[5] * t306;
        const P t341 = c[3] * t310;
        const P t342 = t340 - t341;
        const P t343 = c[4] * t314;
        const P t344 = t342 - t343;
        const P t345 = t339 - t344;
        const P t346 = t339 + t344;
        const P t347 = c[0] * t307;
        const P t348 = t304 - t347;
        const P t349 = c[1] * t311;
        const P t350 = t348 + t349;
        const P t351 = c[2] * t315;
        const P t352 = t350 - t351;
        const P t353 = c[3] * t306;
        const P t354 = c[4] * t310;
        const P t355 = t353 - t354;
        const P t356 = c[5] * t314;
        const P t357 = t355 + t356;
        const P t358 = t352 - t357;
        const P t359 = t352 + t357;
        // spectrum block of 7, multiplier 2
        const P t360 = t309 + t313;
        const P t361 = t360 + t317;
        const P t362 = t361 + t305;
        const P t363 = c[1] * t309;
        const P t364 = c[2] * t313;
        const P t365 = t363 - t364;
        const P t366 = c[0] * t317;
        const P t367 = t365 - t366;
        const P t368 = t367 + t305;
        const P t369 = c[4] * t308;
        const P t370 = c[5] * t312;
        const P t371 = t369 + t370;
        const P t372 = c[3] * t316;
        const P t373 = t371 + t372;
        const P t374 = t368 - t373;
        const P t375 = t368 + t373;
        const P t376 = c[2] * t309;
        const P t377 = t305 - t376;
        const P t378 = c[0] * t313;
        const P t379 = t377 - t378;
        const P t380 = c[1] * t317;
        const P t381 = t379 + t380;
        const P t382 = c[5] * t308;
        const P t383 = c[3] * t312;
        const P t384 = t382 - t383;
        const P t385 = c[4] * t316;
        const P t386 = t384 - t385;
        const P t387 = t381 - t386;
        const P t388 = t381 + t386;
        const P t389 = c[0] * t309;
        const P t390 = t305 - t389;
        const P t391 = c[1] * t313;
        const P t392 = t390 + t391;
        const P t393 = c[2] * t317;
        const P t394 = t392 - t393;
        const P t395 = c[3] * t308;
        const P t396 = c[4] * t312;
        const P t397 = t395 - t396;
        const P t398 = c[5] * t316;
        const P t399 = t397 + t398;
        const P t400 = t394 - t399;
        const P t401 = t394 + t399;
        // complex block of 2
        const P t402 = t299 - t227;
        const P t403 = t230 - t302;
        const P t404 = t227 + t299;
        const P t405 = t230 + t302;
        // mirrored skew block of 14
        const P t406 = c[5] * t405;
        const P t407 = c[2] * t404;
        const P t408 = t406 + t407;
        const P t409 = c[2] * t405;
        const P t410 = c[5] * t404;
        const P t411 = t409 - t410;
        // complex block of 2
        const P t412 = t287 - t239;
        const P t413 = t242 + t290;
        const P t414 = t239 + t287;
        const P t415 = t242 - t290;
        // mirrored skew block of 14
        const P t416 = c[4] * t415;
        const P t417 = c[1] * t414;
        const P t418 = t416 + t417;
        const P t419 = c[1] * t415;
        const P t420 = c[4] * t414;
        const P t421 = t419 - t420;
        // complex block of 2
        const P t422 = t275 - t251;
        const P t423 = t278 - t254;
        const P t424 = t251 + t275;
        const P t425 = t254 + t278;
        // mirrored skew block of 14
        const P t426 = c[0] * t424;
        const P t427 = c[3] * t425;
        const P t428 = t426 - t427;
        const P t429 = c[3] * t424;
        const P t430 = c[0] * t425;
        const P t431 = t429 + t430;
        // spectrum block of 7, multiplier 2
        const P t432 = t423 + t413;
        const P t433 = t432 + t403;
        const P t434 = t433 + t266;
        const P t435 = c[1] * t423;
        const P t436 = c[2] * t413;
        const P t437 = t435 - t436;
        const P t438 = c[0] * t403;
        const P t439 = t437 - t438;
        const P t440 = t439 + t266;
        const P t441 = c[4] * t422;
        const P t442 = c[5] * t412;
        const P t443 = t441 + t442;
        const P t444 = c[3] * t402;
        const P t445 = t443 + t444;
        const P t446 = t440 + t445;
        const P t447 = t440 - t445;
        const P t448 = c[2] * t423;
        const P t449 = t266 - t448;
        const P t450 = c[0] * t413;
        const P t451 = t449 - t450;
        const P t452 = c[1] * t403;
        const P t453 = t451 + t452;
        const P t454 = c[3] * t412;
        const P t455 = c[5] * t422;
        const P t456 = t454 - t455;
        const P t457 = c[4] * t402;
        const P t458 = t456 + t457;
        const P t459 = t453 - t458;
        const P t460 = t453 + t458;
        const P t461 = c[0] * t423;
        const P t462 = t266 - t461;
        const P t463 = c[1] * t413;
        const P t464 = t462 + t463;
        const P t465 = c[2] * t403;
        const P t466 = t464 - t465;
        const P t467 = c[4] * t412;
        const P t468 = c[3] * t422;
        const P t469 = t467 - t468;
        const P t470 = c[5] * t402;
        const P t471 = t469 - t470;
        const P t472 = t466 - t471;
        const P t473 = t466 + t471;
        // spectrum block of 7, multiplier 2
        const P t474 = t428 + t418;
        const P t475 = t474 + t408;
        const P t476 = t475 + t263;
        const P t477 = c[1] * t428;
        const P t478 = c[2] * t418;
        const P t479 = t477 - t478;
        const P t480 = c[0] * t408;
        const P t481 = t479 - t480;
        const P t482 = t481 + t263;
        const P t483 = c[4] * t431;
        const P t484 = c[5] * t421;
        const P t485 = t483 - t484;
        const P t486 = c[3] * t411;
        const P t487 = t485 - t486;
        const P t488 = t482 - t487;
        const P t489 = t482 + t487;
        const P t490 = c[2] * t428;
        const P t491 = t263 - t490;
        const P t492 = c[0] * t418;
        const P t493 = t491 - t492;
        const P t494 = c[1] * t408;
        const P t495 = t493 + t494;
        const P t496 = c[5] * t431;
        const P t497 = c[3] * t421;
        const P t498 = t496 + t497;
        const P t499 = c[4] * t411;
        const P t500 = t498 + t499;
        const P t501 = t495 - t500;
        const P t502 = t495 + t500;
        const P t503 = c[0] * t428;
        const P t504 = t263 - t503;
        const P t505 = c[1] * t418;
        const P t506 = t504 + t505;
        const P t507 = c[2] * t408;
        const P t508 = t506 - t507;
        const P t509 = c[3] * t431;
        const P t510 = c[4] * t421;
        const P t511 = t509 + t510;
        const P t512 = c[5] * t411;
        const P t513 = t511 - t512;
        const P t514 = t508 - t513;
        const P t515 = t508 + t513;
        const V t516 = part<0>(t222);
        const V t517 = part<1>(t222);
        // real block of 2
        const V t518 = t516 + t517;
        const V t519 = t516 - t517;
        const P t520 = shuffled<0, 2>(t320, t434);
        const P t521 = shuffled<1, 3>(t320, t434);
        // complex block of 2
        const P t522 = t520 + t521;
        const P t523 = t520 - t521;
        const P t524 = shuffled<0, 2>(t375, t489);
        const P t525 = shuffled<1, 3>(t375, t489);
        // complex block of 2
        const P t526 = t524 + t525;
        const P t527 = shuffled<0, 3>(t524, t525);
        const P t528 = shuffled<0, 3>(t525, t524);
        const P t529 = t527 - t528;
        const P t530 = shuffled<0, 2>(t387, t515);
        const P t531 = shuffled<1, 3>(t387, t515);
        // complex block of 2
        const P t532 = t530 + t531;
        const P t533 = shuffled<0, 3>(t530, t531);
        const P t534 = shuffled<0, 3>(t531, t530);
        const P t535 = t533 - t534;
        const P t536 = shuffled<0, 2>(t346, t447);
        const P t537 = shuffled<1, 3>(t346, t447);
        // complex block of 2
        const P t538 = t536 + t537;
        const P t539 = shuffled<0, 3>(t536, t537);
        const P t540 = shuffled<0, 3>(t537, t536);
        const P t541 = t539 - t540;
        const P t542 = shuffled<0, 2>(t333, t472);
        const P t543 = shuffled<1, 3>(t333, t472);
        // complex block of 2
        const P t544 = t542 + t543;
        const P t545 = shuffled<0, 3>(t542, t543);
        const P t546 = shuffled<0, 3>(t543, t542);
        const P t547 = t545 - t546;
        const P t548 = shuffled<0, 2>(t332, t473);
        const P t549 = shuffled<1, 3>(t332, t473);
        // complex block of 2
        const P t550 = t548 + t549;
        const P t551 = shuffled<0, 3>(t548, t549);
        const P t552 = shuffled<0, 3>(t549, t548);
        const P t553 = t551 - t552;
        const P t554 = shuffled<0, 2>(t345, t446);
        const P t555 = shuffled<1, 3>(t345, t446);
        // complex block of 2
        const P t556 = t554 + t555;
        const P t557 = t554 - t555;
        const P t558 = shuffled<0, 2>(t401, t502);
        const P t559 = shuffled<1, 3>(t401, t502);
        // complex block of 2
        const P t560 = t558 + t559;
        const P t561 = t558 - t559;
        const P t562 = shuffled<0, 2>(t359, t459);
        const P t563 = shuffled<1, 3>(t359, t459);
        // complex block of 2
        const P t564 = t562 + t563;
        const P t565 = shuffled<0, 3>(t562, t563);
        const P t566 = shuffled<0, 3>(t563, t562);
        const P t567 = t565 - t566;
        const P t568 = shuffled<0, 2>(t388, t501);
        const P t569 = shuffled<1, 3>(t388, t501);
        // complex block of 2
        const P t570 = t568 + t569;
        const P t571 = t568 - t569;
        const P t572 = shuffled<0, 2>(t400, t488);
        const P t573 = shuffled<1, 3>(t400, t488);
        // complex block of 2
        const P t574 = t572 + t573;
        const P t575 = shuffled<0, 3>(t572, t573);
        const P t576 = shuffled<0, 3>(t573, t572);
        const P t577 = t575 - t576;
        const P t578 = shuffled<0, 2>(t362, t514);
        const P t579 = shuffled<1, 3>(t362, t514);
        // complex block of 2
        const P t580 = t578 + t579;
        const P t581 = t578 - t579;
        const P t582 = shuffled<0, 2>(t358, t460);
        const P t583 = shuffled<1, 3>(t358, t460);
        // complex block of 2
        const P t584 = t582 + t583;
        const P t585 = shuffled<0, 3>(t582, t583);
        const P t586 = shuffled<0, 3>(t583, t582);
        const P t587 = t585 - t586;
        const P t588 = shuffled<0, 2>(t374, t476);
        const P t589 = shuffled<1, 3>(t374, t476);
        // complex block of 2
        const P t590 = t588 + t589;
        const P t591 = shuffled<0, 3>(t588, t589);
        const P t592 = shuffled<0, 3>(t589, t588);
        const P t593 = t591 - t592;
        const V x0 = io.in(0);
        // real block of 59
        const V t594 = x0 + t518;
        io.re(0, t594);
        const V t595 = c[114] * t518;
        const V t596 = x0 - t595;
        const P t597 = c[34] * t593;
        const P t598 = shuffled<1, 0>(t593);
        const P t599 = P(c[35], -c[35]) * t598;
        const P t600 = t597 + t599;
        const P t601 = c[36] * t522;
        const P t602 = shuffled<1, 0>(t522);
        const P t603 = P(c[37], -c[37]) * t602;
        const P t604 = t601 + t603;
        const P t605 = c[38] * t587;
        const P t606 = shuffled<1, 0>(t587);
        const P t607 = P(-c[39], c[39]) * t606;
        const P t608 = t605 + t607;
        const P t609 = P(-c[40], c[40]) * t526;
        const P t610 = shuffled<1, 0>(t526);
        const P t611 = c[41] * t610;
        const P t612 = t609 + t611;
        const P t613 = P(-c[42], c[42]) * t581;
        const P t614 = shuffled<1, 0>(t581);
        const P t615 = c[43] * t614;
        const P t616 = t613 + t615;
        const P t617 = shuffled<1, 0>(t532);
        const P t618 = c[44] * t617;
        const P t619 = P(c[45], -c[45]) * t532;
        const P t620 = t618 + t619;
        const P t621 = c[46] * t577;
        const P t622 = shuffled<1, 0>(t577);
        const P t623 = P(-c[47], c[47]) * t622;
        const P t624 = t621 + t623;
        const P t625 = shuffled<1, 0>(t538);
        const P t626 = c[48] * t625;
        const P t627 = P(c[49], -c[49]) * t538;
        const P t628 = t626 + t627;
        const P t629 = c[50] * t571;
        const P t630 = shuffled<1, 0>(t571);
        const P t631 = P(c[51], -c[51]) * t630;
        const P t632 = t629 + t631;
        const P t633 = shuffled<1, 0>(t544);
        const P t634 = c[52] * t633;
        const P t635 = P(c[53], -c[53]) * t544;
        const P t636 = t634 + t635;
        const P t637 = P(-c[54], c[54]) * t567;
        const P t638 = shuffled<1, 0>(t567);
        const P t639 = c[55] * t638;
        const P t640 = t637 + t639;
        const P t641 = P(-c[56], c[56]) * t550;
        const P t642 = shuffled<1, 0>(t550);
        const P t643 = c[57] * t642;
        const P t644 = t641 + t643;
        const P t645 = P(-c[58], c[58]) * t561;
        const P t646 = shuffled<1, 0>(t561);
        const P t647 = c[59] * t646;
        const P t648 = t645 + t647;
        const P t649 = shuffled<1, 0>(t556);
        const P t650 = c[60] * t649;
        const P t651 = P(c[61], -c[61]) * t556;
        const P t652 = t650 + t651;
        const P t653 = c[62] * t557;
        const P t654 = shuffled<1, 0>(t557);
        const P t655 = P(c[63], -c[63]) * t654;
        const P t656 = t653 + t655;
        const P t657 = c[64] * t560;
        const P t658 = shuffled<1, 0>(t560);
        const P t659 = P(c[65], -c[65]) * t658;
        const P t660 = t657 + t659;
        const P t661 = shuffled<1, 0>(t553);
        const P t662 = c[66] * t661;
        const P t663 = P(c[67], -c[67]) * t553;
        const P t664 = t662 + t663;
        const P t665 = c[68] * t564;
        const P t666 = shuffled<1, 0>(t564);
        const P t667 = P(-c[69], c[69]) * t666;
        const P t668 = t665 + t667;
        const P t669 = c[70] * t547;
        const P t670 = shuffled<1, 0>(t547);
        const P t671 = P(-c[71], c[71]) * t670;
        const P t672 = t669 + t671;
        const P t673 = shuffled<1, 0>(t570);
        const P t674 = c[72] * t673;
        const P t675 = P(c[73], -c[73]) * t570;
        const P t676 = t674 + t675;
        const P t677 = shuffled<1, 0>(t541);
        const P t678 = c[74] * t677;
        const P t679 = P(c[75], -c[75]) * t541;
        const P t680 = t678 + t679;
        const P t681 = shuffled<1, 0>(t574);
        const P t682 = c[76] * t681;
        const P t683 = P(c[77], -c[77]) * t574;
        const P t684 = t682 + t683;
        const P t685 = c[78] * t535;
        const P t686 = shuffled<1, 0>(t535);
        const P t687 = P(c[79], -c[79]) * t686;
        const P t688 = t685 + t687;
        const P t689 = P(-c[80], c[80]) * t580;
        const P t690 = shuffled<1, 0>(t580);
        const P t691 = c[81] * t690;
        const P t692 = t689 + t691;
        const P t693 = shuffled<1, 0>(t529);
        const P t694 = c[82] * t693;
        const P t695 = P(c[83], -c[83]) * t529;
        const P t696 = t694 + t695;
        const P t697 = shuffled<1, 0>(t584);
        const P t698 = c[84] * t697;
        const P t699 = P(c[85], -c[85]) * t584;
        const P t700 = t698 + t699;
        const P t701 = c[86] * t523;
        const P t702 = shuffled<1, 0>(t523);
        const P t703 = P(c[87], -c[87]) * t702;
        const P t704 = t701 + t703;
        const P t705 = shuffled<1, 0>(t590);
        const P t706 = c[88] * t705;
        const P t707 = P(c[89], -c[89]) * t590;
        const P t708 = t706 + t707;
        const P t709 = shuffled<1, 2>(t668, t640);
        const P t710 = shuffled<1, 2>(t700, t608);
        const P t711 = flipped<1, 0>(t710);
        // real block of 7
        const P t712 = t709 + t711;
        const P t713 = shuffled<1, 2>(t652, t680);
        const P t714 = shuffled<1, 2>(t628, t656);
        const P t715 = flipped<1, 0>(t714);
        const P t716 = t713 + t715;
        const P t717 = c[1] * t716;
        const V t718 = part<0>(t717);
        const V t719 = part<0>(t712);
        const V t720 = c[2] * t719;
        const V t721 = t718 - t720;
        const P t722 = shuffled<1, 2>(t636, t672);
        const P t723 = shuffled<1, 2>(t644, t664);
        const P t724 = t722 + t723;
        const V t725 = part<0>(t724);
        const V t726 = c[0] * t725;
        const V t727 = t721 + t726;
        const V t728 = part<1>(t604);
        const P t729 = c[2] * t716;
        const V t730 = part<0>(t729);
        const V t731 = t728 - t730;
        const V t732 = c[0] * t719;
        const V t733 = t731 - t732;
        const P t734 = c[0] * t716;
        const V t735 = part<0>(t734);
        const V t736 = t728 - t735;
        const V t737 = c[1] * t719;
        const V t738 = t736 + t737;
        const P t739 = shuffled<1, 2>(t684, t624);
        const P t740 = shuffled<1, 2>(t620, t688);
        const P t741 = flipped<0, 1>(t740);
        // real block of 7
        const P t742 = t739 + t741;
        const P t743 = shuffled<1, 2>(t708, t648);
        const P t744 = shuffled<1, 2>(t660, t600);
        const P t745 = flipped<1, 0>(t744);
        const P t746 = t743 + t745;
        const P t747 = c[1] * t746;
        const V t748 = part<0>(t747);
        const V t749 = part<0>(t742);
        const V t750 = c[2] * t749;
        const V t751 = t748 - t750;
        const P t752 = shuffled<1, 2>(t692, t632);
        const P t753 = shuffled<1, 2>(t676, t616);
        const P t754 = t752 - t753;
        const V t755 = part<0>(t754);
        const V t756 = c[0] * t755;
        const V t757 = t751 - t756;
        const V t758 = part<1>(t612);
        const P t759 = c[2] * t746;
        const V t760 = part<0>(t759);
        const V t761 = t758 - t760;
        const V t762 = c[0] * t749;
        const V t763 = t761 - t762;
        const P t764 = c[0] * t746;
        const V t765 = part<0>(t764);
        const V t766 = t758 - t765;
        const V t767 = c[1] * t749;
        const V t768 = t766 + t767;
        const P t769 = shuffled<0, 3>(t604, t704);
        const P t770 = shuffled<0, 3>(t692, t616);
        // real block of 2
        const P t771 = t769 - t770;
        const P t772 = shuffled<0, 3>(t628, t680);
        const P t773 = shuffled<0, 3>(t676, t632);
        const P t774 = flipped<0, 1>(t773);
        // real block of 2
        const P t775 = t772 + t774;
        const P t776 = shuffled<0, 3>(t652, t656);
        const P t777 = shuffled<0, 3>(t620, t688);
        const P t778 = flipped<0, 1>(t777);
        // real block of 2
        const P t779 = t776 + t778;
        const P t780 = flipped<1, 0>(t779);
        // real block of 7, multiplier 2
        const P t781 = t775 + t780;
        const P t782 = c[0] * t781;
        const P t783 = t771 - t782;
        const P t784 = shuffled<0, 3>(t668, t640);
        const P t785 = shuffled<0, 3>(t660, t648);
        // real block of 2
        const P t786 = t784 - t785;
        const P t787 = shuffled<0, 3>(t700, t624);
        const P t788 = shuffled<0, 3>(t684, t608);
        // real block of 2
        const P t789 = t787 - t788;
        // real block of 7, multiplier 2
        const P t790 = t786 + t789;
        const P t791 = c[1] * t790;
        const P t792 = t783 + t791;
        const P t793 = shuffled<0, 3>(t636, t672);
        const P t794 = shuffled<0, 3>(t612, t696);
        const P t795 = flipped<1, 0>(t794);
        // real block of 2
        const P t796 = t793 + t795;
        const P t797 = shuffled<0, 3>(t644, t664);
        const P t798 = shuffled<0, 3>(t708, t600);
        // real block of 2
        const P t799 = t797 - t798;
        const P t800 = flipped<0, 1>(t796);
        // real block of 7, multiplier 2
        const P t801 = t799 + t800;
        const P t802 = c[2] * t801;
        const P t803 = t792 - t802;
        const P t804 = t775 - t780;
        const P t805 = t786 - t789;
        const P t806 = c[3] * t804;
        const P t807 = c[4] * t805;
        const P t808 = t806 + t807;
        const P t809 = flipped<1, 0>(t799);
        const P t810 = t796 + t809;
        const P t811 = P(-c[5], c[5]) * t810;
        const P t812 = t808 + t811;
        // spectrum block of 29
        const P t813 = P(c[90], c[18]) * t803;
        const P t814 = P(c[91], -c[19]) * t812;
        const P t815 = t813 + t814;
        // real block of 7, multiplier 2
        const P t816 = c[2] * t781;
        const P t817 = t771 - t816;
        const P t818 = c[0] * t790;
        const P t819 = t817 - t818;
        const P t820 = c[1] * t801;
        const P t821 = t819 + t820;
        const P t822 = c[3] * t805;
        const P t823 = c[4] * t810;
        const P t824 = shuffled<0, 3>(t822, t823);
        const P t825 = P(c[5], -c[5]) * t804;
        const P t826 = t824 + t825;
        const P t827 = shuffled<0, 3>(t823, t822);
        const P t828 = flipped<0, 1>(t827);
        const P t829 = t826 + t828;
        // spectrum block of 29
        const P t830 = P(c[92], c[24]) * t821;
        const P t831 = P(c[93], c[25]) * t829;
        const P t832 = t830 + t831;
        // spectrum block of 7, multiplier 4
        const P t833 = c[1] * t832;
        const V t834 = part<0>(t833);
        const V t835 = part<0>(t815);
        const V t836 = c[2] * t835;
        const V t837 = t834 - t836;
        // real block of 7, multiplier 2
        const P t838 = c[1] * t781;
        const P t839 = c[2] * t790;
        const P t840 = t838 - t839;
        const P t841 = c[0] * t801;
        const P t842 = t840 - t841;
        const P t843 = t842 + t771;
        const P t844 = c[4] * t804;
        const P t845 = P(-c[5], c[5]) * t805;
        const P t846 = c[3] * t810;
        const P t847 = shuffled<0, 3>(t845, t846);
        const P t848 = t844 + t847;
        const P t849 = shuffled<0, 3>(t846, t845);
        const P t850 = t848 - t849;
        // spectrum block of 29
        const P t851 = P(c[94], c[10]) * t843;
        const P t852 = P(c[95], c[11]) * t850;
        const P t853 = t851 + t852;
        const V t854 = part<0>(t853);
        // spectrum block of 7, multiplier 4
        const V t855 = c[0] * t854;
        const V t856 = t837 - t855;
        // real block of 7, multiplier 2
        const P t857 = t781 + t790;
        const P t858 = t857 + t801;
        const P t859 = t858 + t771;
        // spectrum block of 29
        const P t860 = c[33] * t859;
        const V t861 = part<0>(t860);
        // spectrum block of 7, multiplier 4
        const P t862 = c[2] * t832;
        const V t863 = part<0>(t862);
        const V t864 = t861 - t863;
        const V t865 = c[0] * t835;
        const V t866 = t864 - t865;
        const P t867 = c[0] * t832;
        const V t868 = part<0>(t867);
        const V t869 = t861 - t868;
        const V t870 = c[1] * t835;
        const V t871 = t869 + t870;
        // real block of 2
        const P t872 = t769 + t770;
        // real block of 2
        const P t873 = t772 - t774;
        // real block of 2
        const P t874 = t788 + t787;
        // real block of 2
        const P t875 = t797 + t798;
        const P t876 = flipped<0, 1>(t793);
        // real block of 2
        const P t877 = t794 + t876;
        // real block of 2
        const P t878 = t784 + t785;
        const P t879 = flipped<1, 0>(t776);
        // real block of 2
        const P t880 = t879 + t777;
        // real block of 7, multiplier 2
        const P t881 = t873 + t880;
        const P t882 = t873 - t880;
        const P t883 = flipped<0, 1>(t874);
        const P t884 = t878 + t883;
        const P t885 = t878 - t883;
        const P t886 = t877 + t875;
        const P t887 = t877 - t875;
        const P t888 = t881 + t884;
        const P t889 = t888 + t886;
        const P t890 = t889 + t872;
        const P t891 = c[2] * t881;
        const P t892 = t872 - t891;
        const P t893 = c[0] * t884;
        const P t894 = t892 - t893;
        const P t895 = c[1] * t886;
        const P t896 = t894 + t895;
        const P t897 = c[5] * t882;
        const P t898 = c[3] * t885;
        const P t899 = t897 + t898;
        const P t900 = c[4] * t887;
        const P t901 = t899 + t900;
        const P t902 = c[0] * t881;
        const P t903 = t872 - t902;
        const P t904 = c[1] * t884;
        const P t905 = t903 + t904;
        const P t906 = c[2] * t886;
        const P t907 = t905 - t906;
        const P t908 = c[3] * t882;
        const P t909 = c[4] * t885;
        const P t910 = t908 + t909;
        const P t911 = c[5] * t887;
        const P t912 = t910 - t911;
        const P t913 = c[1] * t881;
        const P t914 = c[2] * t884;
        const P t915 = t913 - t914;
        const P t916 = c[0] * t886;
        const P t917 = t915 - t916;
        const P t918 = t917 + t872;
        const P t919 = c[4] * t882;
        const P t920 = c[5] * t885;
        const P t921 = t919 - t920;
        const P t922 = c[3] * t887;
        const P t923 = t921 - t922;
        const P t924 = flipped<0, 1>(t713);
        // real block of 7
        const P t925 = t714 + t924;
        const P t926 = flipped<0, 1>(t709);
        const P t927 = t710 + t926;
        const P t928 = t723 - t722;
        const P t929 = t716 + t712;
        const P t930 = flipped<1, 0>(t724);
        const P t931 = t929 + t930;
        const P t932 = shuffled<1, 2>(t604, t704);
        const P t933 = t931 + t932;
        const V t934 = part<0>(t704);
        const V t935 = part<1>(t717);
        // real block of 7
        const V t936 = t934 + t935;
        const V t937 = part<1>(t712);
        const V t938 = c[2] * t937;
        const V t939 = t938 - t936;
        const P t940 = joined(t727, t939);
        const V t941 = part<1>(t930);
        const V t942 = c[0] * t941;
        const P t943 = joined(t728, t942);
        // real block of 7
        const P t944 = t940 + t943;
        const P t945 = c[5] * t927;
        const P t946 = c[4] * t925;
        const P t947 = c[3] * t928;
        const P t948 = shuffled<0, 3>(t946, t947);
        const P t949 = t945 + t948;
        const P t950 = shuffled<0, 3>(t947, t946);
        const P t951 = flipped<0, 1>(t950);
        const P t952 = t949 + t951;
        const V t953 = part<1>(t729);
        // real block of 7
        const V t954 = c[0] * t937;
        const V t955 = t953 + t954;
        const V t956 = c[1] * t941;
        const V t957 = t955 - t956;
        const P t958 = joined(t733, t957);
        // real block of 7
        const V t959 = c[1] * t725;
        const P t960 = joined(t959, t934);
        const P t961 = t958 - t960;
        const P t962 = c[5] * t925;
        const P t963 = P(-c[3], c[3]) * t927;
        const P t964 = t962 + t963;
        const P t965 = P(-c[4], c[4]) * t928;
        const P t966 = t964 + t965;
        const V t967 = part<1>(t734);
        // real block of 7
        const V t968 = c[1] * t937;
        const V t969 = t967 - t968;
        const V t970 = c[2] * t941;
        const V t971 = t969 + t970;
        const P t972 = joined(t738, t971);
        // real block of 7
        const V t973 = -c[2] * t725;
        const P t974 = joined(t973, t934);
        const P t975 = t972 - t974;
        const P t976 = c[5] * t928;
        const P t977 = P(c[3], -c[3]) * t925;
        const P t978 = t976 + t977;
        const P t979 = c[4] * t927;
        const P t980 = t978 - t979;
        const P t981 = flipped<0, 1>(t743);
        // real block of 7
        const P t982 = t744 + t981;
        const P t983 = t739 - t741;
        const P t984 = t752 + t753;
        const P t985 = flipped<0, 1>(t746);
        const P t986 = t742 + t985;
        const P t987 = t986 + t754;
        const P t988 = shuffled<1, 2>(t612, t696);
        const P t989 = t987 + t988;
        const V t990 = part<0>(t696);
        const V t991 = part<1>(t747);
        // real block of 7
        const V t992 = t990 - t991;
        const V t993 = part<1>(t742);
        const V t994 = c[2] * t993;
        const V t995 = t992 - t994;
        const P t996 = joined(t757, t995);
        const V t997 = part<1>(t754);
        const V t998 = -c[0] * t997;
        const P t999 = joined(t758, t998);
        // real block of 7
        const P t1000 = t996 + t999;
        const P t1001 = c[5] * t983;
        const P t1002 = c[4] * t982;
        const P t1003 = c[3] * t984;
        const P t1004 = shuffled<0, 3>(t1002, t1003);
        const P t1005 = t1001 + t1004;
        const P t1006 = shuffled<0, 3>(t1003, t1002);
        const P t1007 = t1005 - t1006;
        const V t1008 = part<1>(t759);
        // real block of 7
        const V t1009 = c[0] * t993;
        const V t1010 = t1008 - t1009;
        const V t1011 = c[1] * t997;
        const V t1012 = t1010 + t1011;
        const P t1013 = joined(t763, t1012);
        // real block of 7
        const V t1014 = c[1] * t755;
        const P t1015 = joined(t1014, t990);
        const P t1016 = t1013 + t1015;
        const P t1017 = c[5] * t982;
        const P t1018 = c[4] * t984;
        const P t1019 = c[3] * t983;
        const P t1020 = shuffled<0, 3>(t1018, t1019);
        const P t1021 = t1017 + t1020;
        const P t1022 = shuffled<0, 3>(t1019, t1018);
        const P t1023 = flipped<1, 0>(t1022);
        const P t1024 = t1021 + t1023;
        const V t1025 = part<1>(t764);
        // real block of 7
        const V t1026 = c[1] * t993;
        const V t1027 = t1025 + t1026;
        const V t1028 = c[2] * t997;
        const V t1029 = t1027 - t1028;
        const P t1030 = joined(t768, t1029);
        // real block of 7
        const V t1031 = -c[2] * t755;
        const P t1032 = joined(t1031, t990);
        const P t1033 = t1030 + t1032;
        const P t1034 = P(-c[4], c[4]) * t983;
        const P t1035 = c[5] * t984;
        const P t1036 = shuffled<0, 3>(t1034, t1035);
        const P t1037 = P(c[3], -c[3]) * t982;
        const P t1038 = t1036 + t1037;
        const P t1039 = shuffled<0, 3>(t1035, t1034);
        const P t1040 = t1038 - t1039;
        // skew block of 14
        const P t1041 = c[5] * t1033;
        const P t1042 = c[2] * t1040;
        const P t1043 = t1041 - t1042;
        const P t1044 = c[5] * t1040;
        const P t1045 = c[2] * t1033;
        const P t1046 = t1044 + t1045;
        // complex block of 2
        const P t1047 = t975 + t1043;
        const P t1048 = t980 + t1046;
        const P t1049 = t975 - t1043;
        const P t1050 = t1046 - t980;
        // skew block of 14
        const P t1051 = c[4] * t1016;
        const P t1052 = P(-c[1], c[1]) * t1024;
        const P t1053 = t1051 + t1052;
        const P t1054 = c[4] * t1024;
        const P t1055 = P(c[1], -c[1]) * t1016;
        const P t1056 = t1054 + t1055;
        // complex block of 2
        const P t1057 = t961 + t1053;
        const P t1058 = t966 + t1056;
        const P t1059 = t961 - t1053;
        const P t1060 = shuffled<0, 3>(t1056, t966);
        const P t1061 = shuffled<0, 3>(t966, t1056);
        const P t1062 = t1060 - t1061;
        // skew block of 14
        const P t1063 = c[3] * t1000;
        const P t1064 = c[0] * t1007;
        const P t1065 = t1063 - t1064;
        const P t1066 = c[3] * t1007;
        const P t1067 = c[0] * t1000;
        const P t1068 = t1066 + t1067;
        // complex block of 2
        const P t1069 = t944 + t1065;
        const P t1070 = t952 + t1068;
        const P t1071 = t944 - t1065;
        const P t1072 = t1068 - t952;
        // real block of 59
        const V t1073 = c[115] * t519;
        const P t1074 = joined(t596, t1073);
        // spectrum block of 29
        const P t1075 = P(-c[32], c[32]) * t890;
        const P t1076 = t1074 + t1075;
        const P t1077 = P(c[96], c[9]) * t1047;
        const P t1078 = P(c[97], c[8]) * t1048;
        const P t1079 = t1077 + t1078;
        const P t1080 = P(c[96], c[9]) * t1048;
        const P t1081 = P(c[97], c[8]) * t1047;
        const P t1082 = t1080 - t1081;
        const P t1083 = P(c[95], c[11]) * t843;
        const P t1084 = P(c[94], c[10]) * t850;
        const P t1085 = t1083 - t1084;
        const P t1086 = P(c[98], c[13]) * t1057;
        const P t1087 = P(-c[99], c[12]) * t1058;
        const P t1088 = t1086 + t1087;
        const P t1089 = P(c[98], c[13]) * t1058;
        const P t1090 = P(c[99], -c[12]) * t1057;
        const P t1091 = t1089 + t1090;
        const P t1092 = P(c[100], c[14]) * t896;
        const P t1093 = P(c[101], -c[15]) * t901;
        const P t1094 = t1092 + t1093;
        const P t1095 = P(-c[100], c[14]) * t901;
        const P t1096 = P(c[101], c[15]) * t896;
        const P t1097 = t1095 + t1096;
        const P t1098 = P(c[102], c[17]) * t1070;
        const P t1099 = P(c[103], -c[16]) * t1069;
        const P t1100 = t1098 + t1099;
        const P t1101 = P(c[103], c[16]) * t1070;
        const P t1102 = P(-c[102], c[17]) * t1069;
        const P t1103 = t1101 + t1102;
        const P t1104 = P(-c[90], c[18]) * t812;
        const P t1105 = P(c[91], c[19]) * t803;
        const P t1106 = t1104 + t1105;
        const P t1107 = P(c[6], c[7]) * t933;
        const P t1108 = P(c[7], c[6]) * t989;
        const P t1109 = t1107 + t1108;
        const P t1110 = P(c[7], c[6]) * t933;
        const P t1111 = P(c[6], c[7]) * t989;
        const P t1112 = t1110 - t1111;
        const P t1113 = P(c[104], c[20]) * t907;
        const P t1114 = P(c[105], -c[21]) * t912;
        const P t1115 = t1113 + t1114;
        const P t1116 = P(-c[104], c[20]) * t912;
        const P t1117 = P(c[105], c[21]) * t907;
        const P t1118 = t1116 + t1117;
        const P t1119 = P(c[106], c[22]) * t1071;
        const P t1120 = P(c[107], c[23]) * t1072;
        const P t1121 = t1119 + t1120;
        const P t1122 = P(-c[107], c[23]) * t1071;
        const P t1123 = P(c[106], -c[22]) * t1072;
        const P t1124 = t1122 + t1123;
        const P t1125 = P(c[92], c[24]) * t829;
        const P t1126 = P(c[93], c[25]) * t821;
        const P t1127 = t1125 - t1126;
        const P t1128 = P(-c[108], c[27]) * t1059;
        const P t1129 = P(c[109], -c[26]) * t1062;
        const P t1130 = t1128 + t1129;
        const P t1131 = P(c[108], c[27]) * t1062;
        const P t1132 = P(c[109], c[26]) * t1059;
        const P t1133 = t1131 + t1132;
        const P t1134 = P(c[110], c[28]) * t918;
        const P t1135 = P(-c[111], c[29]) * t923;
        const P t1136 = t1134 + t1135;
        const P t1137 = P(c[110], c[28]) * t923;
        const P t1138 = P(c[111], -c[29]) * t918;
        const P t1139 = t1137 + t1138;
        const P t1140 = P(c[112], c[31]) * t1049;
        const P t1141 = P(c[113], c[30]) * t1050;
        const P t1142 = t1140 + t1141;
        const P t1143 = P(-c[112], c[31]) * t1050;
        const P t1144 = P(c[113], -c[30]) * t1049;
        const P t1145 = t1143 + t1144;
        const P t1146 = flipped<1, 0>(t1115);
        // spectrum block of 7, multiplier 4
        const P t1147 = t1094 + t1146;
        const P t1148 = t1147 + t1136;
        const P t1149 = flipped<0, 1>(t1076);
        const P t1150 = t1148 + t1149;
        const P t1151 = c[1] * t1094;
        const P t1152 = P(c[2], -c[2]) * t1115;
        const P t1153 = t1151 + t1152;
        const P t1154 = c[0] * t1136;
        const P t1155 = t1153 - t1154;
        const P t1156 = t1155 + t1149;
        const P t1157 = c[5] * t1118;
        const P t1158 = P(c[4], -c[4]) * t1097;
        const P t1159 = t1157 + t1158;
        const P t1160 = c[3] * t1139;
        const P t1161 = t1159 + t1160;
        const P t1162 = t1156 - t1161;
        const P t1163 = t1156 + t1161;
        const P t1164 = P(-c[2], c[2]) * t1094;
        const P t1165 = t1076 + t1164;
        const P t1166 = c[0] * t1115;
        const P t1167 = t1165 + t1166;
        const P t1168 = c[1] * t1136;
        const P t1169 = flipped<0, 1>(t1167);
        const P t1170 = t1168 + t1169;
        const P t1171 = c[5] * t1097;
        const P t1172 = P(-c[3], c[3]) * t1118;
        const P t1173 = t1171 + t1172;
        const P t1174 = P(-c[4], c[4]) * t1139;
        const P t1175 = t1173 + t1174;
        const P t1176 = flipped<1, 0>(t1175);
        const P t1177 = t1170 + t1176;
        const P t1178 = t1170 - t1176;
        const P t1179 = P(-c[0], c[0]) * t1094;
        const P t1180 = t1076 + t1179;
        const P t1181 = P(-c[1], c[1]) * t1115;
        const P t1182 = flipped<0, 1>(t1180);
        const P t1183 = t1181 + t1182;
        const P t1184 = c[2] * t1136;
        const P t1185 = t1183 - t1184;
        const P t1186 = c[3] * t1097;
        const P t1187 = P(-c[4], c[4]) * t1118;
        const P t1188 = t1186 + t1187;
        const P t1189 = c[5] * t1139;
        const P t1190 = flipped<0, 1>(t1188);
        const P t1191 = t1189 + t1190;
        const P t1192 = t1185 - t1191;
        const P t1193 = t1185 + t1191;
        const P t1194 = shuffled<0, 3>(t1133, t1091);
        const P t1195 = shuffled<0, 3>(t1091, t1133);
        // complex block of 7, multiplier 4
        const P t1196 = t1194 - t1195;
        const P t1197 = t1130 + t1088;
        const P t1198 = t1133 + t1091;
        const P t1199 = t1130 - t1088;
        const P t1200 = t1082 + t1145;
        const P t1201 = flipped<1, 0>(t1079);
        const P t1202 = t1201 + t1142;
        const P t1203 = t1145 - t1082;
        const P t1204 = t1142 - t1201;
        const P t1205 = t1103 + t1124;
        const P t1206 = t1100 + t1121;
        const P t1207 = t1124 - t1103;
        const P t1208 = shuffled<0, 3>(t1121, t1100);
        const P t1209 = shuffled<0, 3>(t1100, t1121);
        const P t1210 = t1208 - t1209;
        const P t1211 = t1196 - t1200;
        const P t1212 = t1211 - t1205;
        const P t1213 = flipped<0, 1>(t1202);
        const P t1214 = t1197 + t1213;
        const P t1215 = flipped<1, 0>(t1206);
        const P t1216 = t1214 + t1215;
        const P t1217 = t1212 + t1112;
        const P t1218 = flipped<0, 1>(t1109);
        const P t1219 = t1216 + t1218;
        const P t1220 = c[1] * t1196;
        const P t1221 = c[2] * t1200;
        const P t1222 = t1220 + t1221;
        const P t1223 = c[0] * t1205;
        const P t1224 = t1222 + t1223;
        const P t1225 = t1224 + t1112;
        const P t1226 = c[1] * t1197;
        const P t1227 = P(-c[2], c[2]) * t1202;
        const P t1228 = t1226 + t1227;
        const P t1229 = P(c[0], -c[0]) * t1206;
        const P t1230 = t1228 + t1229;
        const P t1231 = t1230 + t1218;
        const P t1232 = c[4] * t1198;
        const P t1233 = P(-c[5], c[5]) * t1203;
        const P t1234 = t1232 + t1233;
        const P t1235 = P(-c[3], c[3]) * t1207;
        const P t1236 = t1234 + t1235;
        const P t1237 = c[4] * t1199;
        const P t1238 = P(c[5], -c[5]) * t1204;
        const P t1239 = t1237 + t1238;
        const P t1240 = c[3] * t1210;
        const P t1241 = t1239 - t1240;
        const P t1242 = t1225 + t1241;
        const P t1243 = flipped<1, 0>(t1236);
        const P t1244 = t1231 + t1243;
        const P t1245 = t1225 - t1241;
        const P t1246 = t1231 - t1243;
        const P t1247 = c[2] * t1196;
        const P t1248 = t1112 - t1247;
        const P t1249 = c[0] * t1200;
        const P t1250 = t1248 + t1249;
        const P t1251 = c[1] * t1205;
        const P t1252 = t1250 - t1251;
        const P t1253 = P(-c[2], c[2]) * t1197;
        const P t1254 = t1109 + t1253;
        const P t1255 = P(-c[0], c[0]) * t1202;
        const P t1256 = flipped<0, 1>(t1254);
        const P t1257 = t1255 + t1256;
        const P t1258 = P(-c[1], c[1]) * t1206;
        const P t1259 = t1257 + t1258;
        const P t1260 = c[3] * t1203;
        const P t1261 = P(c[5], -c[5]) * t1198;
        const P t1262 = t1260 + t1261;
        const P t1263 = c[4] * t1207;
        const P t1264 = t1262 + t1263;
        const P t1265 = c[5] * t1199;
        const P t1266 = P(-c[3], c[3]) * t1204;
        const P t1267 = t1265 + t1266;
        const P t1268 = c[4] * t1210;
        const P t1269 = t1267 + t1268;
        const P t1270 = t1252 + t1269;
        const P t1271 = t1259 - t1264;
        const P t1272 = t1252 - t1269;
        const P t1273 = t1259 + t1264;
        const P t1274 = c[0] * t1196;
        const P t1275 = t1112 - t1274;
        const P t1276 = c[1] * t1200;
        const P t1277 = t1275 - t1276;
        const P t1278 = c[2] * t1205;
        const P t1279 = t1277 + t1278;
        const P t1280 = P(-c[0], c[0]) * t1197;
        const P t1281 = t1109 + t1280;
        const P t1282 = c[1] * t1202;
        const P t1283 = t1281 + t1282;
        const P t1284 = c[2] * t1206;
        const P t1285 = t1283 + t1284;
        const P t1286 = c[4] * t1203;
        const P t1287 = P(c[3], -c[3]) * t1198;
        const P t1288 = t1286 + t1287;
        const P t1289 = c[5] * t1207;
        const P t1290 = t1288 - t1289;
        const P t1291 = c[3] * t1199;
        const P t1292 = P(-c[4], c[4]) * t1204;
        const P t1293 = t1291 + t1292;
        const P t1294 = c[5] * t1210;
        const P t1295 = t1293 - t1294;
        const P t1296 = t1279 + t1295;
        const P t1297 = flipped<1, 0>(t1290);
        const P t1298 = t1285 + t1297;
        const P t1299 = t1279 - t1295;
        const P t1300 = flipped<0, 1>(t1285);
        const P t1301 = t1290 + t1300;
        const P t1302 = flipped<0, 1>(t832);
        // spectrum block of 7, multiplier 4
        const P t1303 = t815 + t1302;
        const P t1304 = t1303 + t853;
        const P t1305 = flipped<0, 1>(t860);
        const P t1306 = t1304 + t1305;
        const V t1307 = part<1>(t860);
        const V t1308 = part<1>(t833);
        // spectrum block of 7, multiplier 4
        const V t1309 = t1307 + t1308;
        const V t1310 = part<1>(t815);
        const V t1311 = c[2] * t1310;
        const V t1312 = t1309 + t1311;
        const P t1313 = joined(t856, t1312);
        const V t1314 = part<1>(t853);
        const V t1315 = c[0] * t1314;
        const P t1316 = joined(t861, t1315);
        // spectrum block of 7, multiplier 4
        const P t1317 = t1313 + t1316;
        const P t1318 = c[5] * t1106;
        const P t1319 = P(c[4], -c[4]) * t1127;
        const P t1320 = t1318 + t1319;
        const P t1321 = P(c[3], -c[3]) * t1085;
        const P t1322 = t1320 + t1321;
        const P t1323 = t1317 + t1322;
        const P t1324 = shuffled<0, 3>(t1317, t1322);
        const P t1325 = shuffled<0, 3>(t1322, t1317);
        const P t1326 = t1324 - t1325;
        const V t1327 = part<1>(t862);
        // spectrum block of 7, multiplier 4
        const V t1328 = c[0] * t1310;
        const V t1329 = t1327 - t1328;
        const V t1330 = c[1] * t1314;
        const V t1331 = t1329 + t1330;
        const P t1332 = joined(t866, t1331);
        // spectrum block of 7, multiplier 4
        const V t1333 = -c[1] * t854;
        const P t1334 = joined(t1333, t1307);
        const P t1335 = t1332 - t1334;
        const P t1336 = P(-c[5], c[5]) * t1127;
        const P t1337 = c[3] * t1106;
        const P t1338 = t1336 + t1337;
        const P t1339 = c[4] * t1085;
        const P t1340 = flipped<0, 1>(t1338);
        const P t1341 = t1339 + t1340;
        const P t1342 = t1335 - t1341;
        const P t1343 = t1335 + t1341;
        const V t1344 = part<1>(t867);
        // spectrum block of 7, multiplier 4
        const V t1345 = c[1] * t1310;
        const V t1346 = t1344 + t1345;
        const V t1347 = c[2] * t1314;
        const V t1348 = t1346 - t1347;
        const P t1349 = joined(t871, t1348);
        // spectrum block of 7, multiplier 4
        const V t1350 = c[2] * t854;
        const P t1351 = joined(t1350, t1307);
        const P t1352 = t1349 - t1351;
        const P t1353 = P(-c[3], c[3]) * t1127;
        const P t1354 = c[4] * t1106;
        const P t1355 = t1353 + t1354;
        const P t1356 = P(-c[5], c[5]) * t1085;
        const P t1357 = t1355 + t1356;
        const P t1358 = flipped<1, 0>(t1357);
        const P t1359 = t1352 + t1358;
        const P t1360 = t1352 - t1358;
        // spectrum block of 2
        const P t1361 = t1150 + t1306;
        const P t1362 = t1150 - t1306;
        // spectrum block of 2
        const P t1363 = t1361 + t1219;
        const P t1364 = t1361 - t1219;
        // spectrum block of 2
        const P t1365 = t1362 + t1217;
        const P t1366 = t1362 - t1217;
        // spectrum block of 2
        const P t1367 = t1193 + t1360;
        const P t1368 = t1193 - t1360;
        // spectrum block of 2
        const P t1369 = t1367 + t1301;
        const P t1370 = t1367 - t1301;
        // spectrum block of 2
        const P t1371 = t1368 + t1299;
        const P t1372 = t1368 - t1299;
        const P t1373 = flipped<0, 1>(t1323);
        // spectrum block of 2
        const P t1374 = t1162 + t1373;
        const P t1375 = t1162 - t1373;
        // spectrum block of 2
        const P t1376 = t1374 + t1244;
        const P t1377 = shuffled<0, 3>(t1365, t1376);
        io.pair(25, t1377);
        const P t1378 = t1374 - t1244;
        const P t1379 = shuffled<0, 3>(t1366, t1378);
        io.pair(26, t1379);
        // spectrum block of 2
        const P t1380 = t1375 + t1242;
        const P t1381 = shuffled<0, 3>(t1364, t1380);
        io.pair(2, negated<0, 1>(t1381));
        const P t1382 = t1375 - t1242;
        const P t1383 = shuffled<0, 3>(t1363, t1382);
        io.pair(29, t1383);
        // spectrum block of 2
        const P t1384 = t1178 + t1343;
        const P t1385 = t1178 - t1343;
        // spectrum block of 2
        const P t1386 = t1384 + t1273;
        const P t1387 = shuffled<0, 3>(t1371, t1386);
        io.pair(20, t1387);
        const P t1388 = t1384 - t1273;
        const P t1389 = shuffled<0, 3>(t1372, t1388);
        io.pair(3, t1389);
        // spectrum block of 2
        const P t1390 = t1385 + t1272;
        const P t1391 = shuffled<0, 3>(t1370, t1390);
        io.pair(28, t1391);
        const P t1392 = t1385 - t1272;
        const P t1393 = shuffled<0, 3>(t1369, t1392);
        io.pair(19, t1393);
        // spectrum block of 2
        const P t1394 = t1177 + t1342;
        const P t1395 = t1177 - t1342;
        // spectrum block of 2
        const P t1396 = t1394 + t1271;
        const P t1397 = shuffled<0, 3>(t1380, t1396);
        io.pair(23, negated<0, 1>(t1397));
        const P t1398 = t1394 - t1271;
        const P t1399 = shuffled<0, 3>(t1382, t1398);
        io.pair(18, negated<0, 1>(t1399));
        // spectrum block of 2
        const P t1400 = t1395 + t1270;
        const P t1401 = shuffled<0, 3>(t1378, t1400);
        io.pair(12, t1401);
        const P t1402 = t1395 - t1270;
        const P t1403 = shuffled<0, 3>(t1376, t1402);
        io.pair(5, t1403);
        // spectrum block of 2
        const P t1404 = t1163 + t1326;
        const P t1405 = t1163 - t1326;
        // spectrum block of 2
        const P t1406 = t1404 + t1246;
        const P t1407 = shuffled<0, 3>(t1390, t1406);
        io.pair(21, t1407);
        const P t1408 = shuffled<0, 3>(t1406, t1366);
        io.pair(27, t1408);
        const P t1409 = t1404 - t1246;
        const P t1410 = shuffled<0, 3>(t1392, t1409);
        io.pair(14, negated<0, 1>(t1410));
        const P t1411 = shuffled<0, 3>(t1409, t1365);
        io.pair(24, negated<0, 1>(t1411));
        // spectrum block of 2
        const P t1412 = t1405 + t1245;
        const P t1413 = shuffled<0, 3>(t1388, t1412);
        io.pair(11, negated<0, 1>(t1413));
        const P t1414 = shuffled<0, 3>(t1412, t1363);
        io.pair(15, t1414);
        const P t1415 = t1405 - t1245;
        const P t1416 = shuffled<0, 3>(t1415, t1364);
        io.pair(4, t1416);
        const P t1417 = shuffled<0, 3>(t1386, t1415);
        io.pair(16, t1417);
        // spectrum block of 2
        const P t1418 = t1192 + t1359;
        const P t1419 = t1192 - t1359;
        const P t1420 = flipped<0, 1>(t1298);
        // spectrum block of 2
        const P t1421 = t1418 + t1420;
        const P t1422 = shuffled<0, 3>(t1421, t1372);
        io.pair(9, t1422);
        const P t1423 = shuffled<0, 3>(t1400, t1421);
        io.pair(22, t1423);
        const P t1424 = t1418 - t1420;
        const P t1425 = shuffled<0, 3>(t1402, t1424);
        io.pair(8, negated<0, 1>(t1425));
        const P t1426 = shuffled<0, 3>(t1424, t1371);
        io.pair(13, negated<0, 1>(t1426));
        // spectrum block of 2
        const P t1427 = t1419 + t1296;
        const P t1428 = shuffled<0, 3>(t1427, t1369);
        io.pair(7, t1428);
        const P t1429 = shuffled<0, 3>(t1398, t1427);
        io.pair(10, negated<0, 1>(t1429));
        const P t1430 = t1419 - t1296;
        const P t1431 = shuffled<0, 3>(t1396, t1430);
        io.pair(6, negated<0, 1>(t1431));
        const P t1432 = shuffled<0, 3>(t1430, t1370);
        io.pair(17, t1432);
        const P t1433 = flipped<0, 1>(t1074);
        // spectrum block of 29
        const P t1434 = t890 + t1433;
        io.pair(1, t1434);
    }
};

}  // namespace zulg
