// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 59.
// Complex DFT of 59 points, Rader block.
// 1404 additions, 1392 subtractions, 1908 multiplications (2026 with `scale`); 92 constants; 227 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<59> {
    static constexpr int steps = 4822;  // with `scale`
    static constexpr double inverseRoot = 0.13018891098082389;  // 1/sqrt(59), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 16/7
        0.9009688679024191,  // c[1]: -cos 2 pi 4/7
        0.6234898018587335,  // c[2]: cos 2 pi 20/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.3609030660383976,  // c[6]: P[4] of 29
        0.1330720128259635,  // c[7]: -Q[4] of 29
        0.2987602224736465,  // c[8]: -P[10] of 29
        0.24228395147216553,  // c[9]: -Q[10] of 29
        0.019970959548377194,  // c[10]: P[11] of 29
        0.38413584113980626,  // c[11]: Q[11] of 29
        0.384463442096457,  // c[12]: P[3] of 29
        0.012126226322052493,  // c[13]: Q[3] of 29
        0.2786653006997481,  // c[14]: P[8] of 29
        0.26515058713755163,  // c[15]: Q[8] of 29
        0.38084126020120657,  // c[16]: P[6] of 29
        0.054028864524680344,  // c[17]: -Q[6] of 29
        0.3753398540149231,  // c[18]: -Q[12] of 29
        0.19791793485411824,  // c[19]: Q[2] of 29
        0.3603875070846735,  // c[20]: -P[9] of 29
        0.13446199615788765,  // c[21]: Q[9] of 29
        0.13150502224471186,  // c[22]: -P[5] of 29
        0.36147698792300353,  // c[23]: -Q[5] of 29
        0.3298297662985413,  // c[24]: P[2] of 29
        0.08413784916151361,  // c[25]: P[12] of 29
        0.3219828698364479,  // c[26]: -Q[1] of 29
        0.21044290248272673,  // c[27]: P[1] of 29
        0.3398943908268515,  // c[28]: -Q[13] of 29
        0.1800860537573993,  // c[29]: P[13] of 29
        0.07274108340629196,  // c[30]: Q[7] of 29
        0.3777140697119294,  // c[31]: P[7] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
        0.26114224835741606,  // c[34]: P[2] of 59
        0.044264026096884644,  // c[35]: -Q[2] of 59
        0.13329431386769738,  // c[36]: -P[14] of 59
        0.22888251085220956,  // c[37]: Q[14] of 59
        0.238593595389464,  // c[38]: P[8] of 59
        0.11501162603233117,  // c[39]: Q[8] of 59
        0.26473942475012313,  // c[40]: -P[24] of 59
        0.008222825940389141,  // c[41]: -Q[24] of 59
        0.2644019076085337,  // c[42]: Q[4] of 59
        0.0854499159287465,  // c[43]: Q[28] of 59
        0.2507047860557158,  // c[44]: P[28] of 59
        0.06754835352935287,  // c[45]: P[6] of 59
        0.2561089569283855,  // c[46]: Q[6] of 59
        0.15410629769252931,  // c[47]: -P[20] of 59
        0.21542011720118803,  // c[48]: Q[20] of 59
        0.1670393661682332,  // c[49]: Q[22] of 59
        0.11457256668934328,  // c[50]: -Q[16] of 59
        0.23880474209212857,  // c[51]: P[16] of 59
        0.05421421718259892,  // c[52]: Q[27] of 59
        0.25925932295435405,  // c[53]: -P[27] of 59
        0.02394684976343933,  // c[54]: Q[15] of 59
        0.26378234639543136,  // c[55]: -P[15] of 59
        0.2309299428168255,  // c[56]: -Q[21] of 59
        0.1297148387582923,  // c[57]: P[21] of 59
        0.26386145948235246,  // c[58]: -Q[5] of 59
        0.02305879622432487,  // c[59]: -P[5] of 59
        0.014845190038075228,  // c[60]: -P[1] of 59
        0.26445074818613296,  // c[61]: Q[1] of 59
        0.23533256479944387,  // c[62]: P[25] of 59
        0.26033742546207705,  // c[63]: Q[23] of 59
        0.0487750221655463,  // c[64]: -P[23] of 59
        0.2570603151186636,  // c[65]: Q[9] of 59
        0.0638323763819381,  // c[66]: -P[9] of 59
        0.25249265337152266,  // c[67]: P[7] of 59
        0.11725683642615767,  // c[68]: -P[13] of 59
        0.2374982361930323,  // c[69]: -Q[13] of 59
        0.210117561407044,  // c[70]: P[17] of 59
        0.1612612423114406,  // c[71]: -Q[17] of 59
        0.2377423799688404,  // c[72]: P[19] of 59
        0.11676103224202658,  // c[73]: Q[19] of 59
        0.12154489634858227,  // c[74]: -Q[25] of 59
        0.25083970924567417,  // c[75]: P[3] of 59
        0.08505303139228909,  // c[76]: Q[3] of 59
        0.08001273571676054,  // c[77]: Q[7] of 59
        0.21629167322460174,  // c[78]: -P[11] of 59
        0.15288063964143453,  // c[79]: -Q[11] of 59
        0.015691052751184383,  // c[80]: -P[4] of 59
        0.240603592321257,  // c[81]: Q[10] of 59
        0.11074515450157817,  // c[82]: P[10] of 59
        0.08920241088977601,  // c[83]: Q[12] of 59
        0.24939428176067635,  // c[84]: -P[12] of 59
        0.12353172004850395,  // c[85]: -Q[18] of 59
        0.23429573625085479,  // c[86]: P[18] of 59
        0.20555395406945343,  // c[87]: P[22] of 59
        0.14536461098959946,  // c[88]: Q[26] of 59
        0.2214129800967289,  // c[89]: P[26] of 59
        0.017241379310344827,  // c[90]: 1/58
        0.13243354737704496,  // c[91]: beta of 59
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x58r = io.re(58);
        const V t0 = x1r + x58r;
        const V t1 = x1r - x58r;
        // real block of 2
        const V x57r = io.re(57);
        const V x2r = io.re(2);
        const V t2 = x57r + x2r;
        const V t3 = x57r - x2r;
        // real block of 2
        const V x48r = io.re(48);
        const V x11r = io.re(11);
        const V t4 = x48r + x11r;
        const V t5 = x48r - x11r;
        // real block of 7, multiplier 4
        const V t6 = t2 + t4;
        const V t7 = t2 - t4;
        // real block of 7, multiplier 4
        const V t8 = t3 + t5;
        const V t9 = t3 - t5;
        // real block of 2
        const V x49r = io.re(49);
        const V x10r = io.re(10);
        const V t10 = x49r + x10r;
        const V t11 = x49r - x10r;
        // real block of 2
        const V x46r = io.re(46);
        const V x13r = io.re(13);
        const V t12 = x46r + x13r;
        const V t13 = x46r - x13r;
        // real block of 7, multiplier 4
        const V t14 = t10 + t12;
        const V t15 = t10 - t12;
        // real block of 7, multiplier 4
        const V t16 = t11 + t13;
        const V t17 = t11 - t13;
        // real block of 2
        const V x12r = io.re(12);
        const V x47r = io.re(47);
        const V t18 = x12r + x47r;
        const V t19 = x12r - x47r;
        // real block of 2
        const V x28r = io.re(28);
        const V x31r = io.re(31);
        const V t20 = x28r + x31r;
        const V t21 = x28r - x31r;
        // real block of 7, multiplier 4
        const V t22 = t20 - t18;
        // real block of 7, multiplier 4
        const V t23 = t21 - t19;
        // real block of 2
        const V x35r = io.re(35);
        const V x24r = io.re(24);
        const V t24 = x35r + x24r;
        const V t25 = x35r - x24r;
        // real block of 7, multiplier 4
        const V t26 = t20 + t18;
        const V t27 = c[0] * t26;
        const V t28 = c[1] * t26;
        const V t29 = c[2] * t26;
        const V t30 = t14 + t6;
        const V t31 = c[1] * t14;
        const V t32 = t24 - t31;
        const V t33 = c[2] * t6;
        const V t34 = c[3] * t15;
        const V t35 = c[4] * t7;
        const V t36 = t34 + t35;
        const V t37 = c[5] * t22;
        const V t38 = c[2] * t14;
        const V t39 = c[0] * t6;
        const V t40 = t38 - t39;
        const V t41 = c[4] * t15;
        const V t42 = c[5] * t7;
        const V t43 = c[3] * t22;
        const V t44 = t42 + t43;
        const V t45 = c[0] * t14;
        const V t46 = t24 - t45;
        const V t47 = c[1] * t6;
        const V t48 = c[5] * t15;
        const V t49 = c[3] * t7;
        const V t50 = t48 + t49;
        const V t51 = c[4] * t22;
        // real block of 7, multiplier 4
        const V t52 = t21 + t19;
        const V t53 = c[0] * t52;
        const V t54 = c[1] * t52;
        const V t55 = c[2] * t52;
        const V t56 = t16 + t8;
        const V t57 = c[1] * t16;
        const V t58 = t25 - t57;
        const V t59 = c[2] * t8;
        const V t60 = c[3] * t17;
        const V t61 = c[4] * t9;
        const V t62 = t60 + t61;
        const V t63 = c[5] * t23;
        const V t64 = c[2] * t16;
        const V t65 = c[0] * t8;
        const V t66 = t64 - t65;
        const V t67 = c[4] * t17;
        const V t68 = c[5] * t9;
        const V t69 = c[3] * t23;
        const V t70 = t68 + t69;
        const V t71 = c[0] * t16;
        const V t72 = t25 - t71;
        const V t73 = c[1] * t8;
        const V t74 = c[5] * t17;
        const V t75 = c[3] * t9;
        const V t76 = t74 + t75;
        const V t77 = c[4] * t23;
        // real block of 2
        const V x3r = io.re(3);
        const V x56r = io.re(56);
        const V t78 = x3r + x56r;
        const V t79 = x3r - x56r;
        // real block of 2
        const V x41r = io.re(41);
        const V x18r = io.re(18);
        const V t80 = x41r + x18r;
        const V t81 = x41r - x18r;
        // real block of 7, multiplier 4
        const V t82 = t78 - t80;
        // real block of 7, multiplier 4
        const V t83 = t79 - t81;
        // real block of 2
        const V x4r = io.re(4);
        const V x55r = io.re(55);
        const V t84 = x4r + x55r;
        const V t85 = x4r - x55r;
        // real block of 2
        const V x51r = io.re(51);
        const V x8r = io.re(8);
        const V t86 = x51r + x8r;
        const V t87 = x51r - x8r;
        // real block of 2
        const V x17r = io.re(17);
        const V x42r = io.re(42);
        const V t88 = x17r + x42r;
        const V t89 = x17r - x42r;
        // real block of 7, multiplier 4
        const V t90 = t86 + t88;
        const V t91 = t86 - t88;
        // real block of 7, multiplier 4
        const V t92 = t87 + t89;
        const V t93 = t87 - t89;
        // real block of 2
        const V x45r = io.re(45);
        const V x14r = io.re(14);
        const V t94 = x45r + x14r;
        const V t95 = x45r - x14r;
        // real block of 2
        const V x26r = io.re(26);
        const V x33r = io.re(33);
        const V t96 = x26r + x33r;
        const V t97 = x26r - x33r;
        // real block of 7, multiplier 4
        const V t98 = t96 + t94;
        const V t99 = t96 - t94;
        // real block of 7, multiplier 4
        const V t100 = t97 + t95;
        const V t101 = t97 - t95;
        // real block of 7, multiplier 4
        const V t102 = t78 + t80;
        const V t103 = c[0] * t102;
        const V t104 = c[1] * t102;
        const V t105 = c[2] * t102;
        const V t106 = t90 + t98;
        const V t107 = c[1] * t90;
        const V t108 = t84 - t107;
        const V t109 = c[2] * t98;
        const V t110 = c[3] * t91;
        const V t111 = c[4] * t99;
        const V t112 = t110 + t111;
        const V t113 = c[5] * t82;
        const V t114 = c[2] * t90;
        const V t115 = c[0] * t98;
        const V t116 = t114 - t115;
        const V t117 = c[4] * t91;
        const V t118 = c[5] * t99;
        const V t119 = c[3] * t82;
        const V t120 = t118 + t119;
        const V t121 = c[0] * t90;
        const V t122 = t84 - t121;
        const V t123 = c[1] * t98;
        const V t124 = c[5] * t91;
        const V t125 = c[3] * t99;
        const V t126 = t124 + t125;
        const V t127 = c[4] * t82;
        // real block of 7, multiplier 4
        const V t128 = t79 + t81;
        const V t129 = c[0] * t128;
        const V t130 = c[1] * t128;
        const V t131 = c[2] * t128;
        const V t132 = t92 + t100;
        const V t133 = c[1] * t92;
        const V t134 = t85 - t133;
        const V t135 = c[2] * t100;
        const V t136 = c[3] * t93;
        const V t137 = c[4] * t101;
        const V t138 = t136 + t137;
        const V t139 = c[5] * t83;
        const V t140 = c[2] * t92;
        const V t141 = c[0] * t100;
        const V t142 = t140 - t141;
        const V t143 = c[4] * t93;
        const V t144 = c[5] * t101;
        const V t145 = c[3] * t83;
        const V t146 = t144 + t145;
        const V t147 = c[0] * t92;
        const V t148 = t85 - t147;
        const V t149 = c[1] * t100;
        const V t150 = c[5] * t93;
        const V t151 = c[3] * t101;
        const V t152 = t150 + t151;
        const V t153 = c[4] * t83;
        // real block of 2
        const V x5r = io.re(5);
        const V x54r = io.re(54);
        const V t154 = x5r + x54r;
        const V t155 = x5r - x54r;
        // real block of 2
        const V x19r = io.re(19);
        const V x40r = io.re(40);
        const V t156 = x19r + x40r;
        const V t157 = x19r - x40r;
        // real block of 7, multiplier 4
        const V t158 = t156 - t154;
        // real block of 7, multiplier 4
        const V t159 = t157 - t155;
        // real block of 2
        const V x53r = io.re(53);
        const V x6r = io.re(6);
        const V t160 = x53r + x6r;
        const V t161 = x53r - x6r;
        // real block of 2
        const V x9r = io.re(9);
        const V x50r = io.re(50);
        const V t162 = x9r + x50r;
        const V t163 = x9r - x50r;
        // real block of 7, multiplier 4
        const V t164 = t160 + t162;
        const V t165 = t160 - t162;
        // real block of 7, multiplier 4
        const V t166 = t161 + t163;
        const V t167 = t161 - t163;
        // real block of 2
        const V x16r = io.re(16);
        const V x43r = io.re(43);
        const V t168 = x16r + x43r;
        const V t169 = x16r - x43r;
        // real block of 2
        const V x29r = io.re(29);
        const V x30r = io.re(30);
        const V t170 = x29r + x30r;
        const V t171 = x29r - x30r;
        // real block of 7, multiplier 4
        const V t172 = t170 + t168;
        const V t173 = t170 - t168;
        // real block of 7, multiplier 4
        const V t174 = t171 + t169;
        const V t175 = t171 - t169;
        // real block of 2
        const V x27r = io.re(27);
        const V x32r = io.re(32);
        const V t176 = x27r + x32r;
        const V t177 = x27r - x32r;
        // real block of 7, multiplier 4
        const V t178 = t156 + t154;
        const V t179 = c[0] * t178;
        const V t180 = c[1] * t178;
        const V t181 = c[2] * t178;
        const V t182 = t164 + t172;
        const V t183 = c[1] * t164;
        const V t184 = t176 - t183;
        const V t185 = c[2] * t172;
        const V t186 = c[3] * t165;
        const V t187 = c[4] * t173;
        const V t188 = t186 + t187;
        const V t189 = c[5] * t158;
        const V t190 = c[2] * t164;
        const V t191 = c[0] * t172;
        const V t192 = t190 - t191;
        const V t193 = c[4] * t165;
        const V t194 = c[5] * t173;
        const V t195 = c[3] * t158;
        const V t196 = t194 + t195;
        const V t197 = c[0] * t164;
        const V t198 = t176 - t197;
        const V t199 = c[1] * t172;
        const V t200 = c[5] * t165;
        const V t201 = c[3] * t173;
        const V t202 = t200 + t201;
        const V t203 = c[4] * t158;
        // real block of 7, multiplier 4
        const V t204 = t157 + t155;
        const V t205 = c[0] * t204;
        const V t206 = c[1] * t204;
        const V t207 = c[2] * t204;
        const V t208 = t166 + t174;
        const V t209 = c[1] * t166;
        const V t210 = t177 - t209;
        const V t211 = c[2] * t174;
        const V t212 = c[3] * t167;
        const V t213 = c[4] * t175;
        const V t214 = t212 + t213;
        const V t215 = c[5] * t159;
        const V t216 = c[2] * t166;
        const V t217 = c[0] * t174;
        const V t218 = t216 - t217;
        const V t219 = c[4] * t167;
        const V t220 = c[5] * t175;
        const V t221 = c[3] * t159;
        const V t222 = t220 + t221;
        const V t223 = c[0] * t166;
        const V t224 = t177 - t223;
        const V t225 = c[1] * t174;
        const V t226 = c[5] * t167;
        const V t227 = c[3] * t175;
        const V t228 = t226 + t227;
        const V t229 = c[4] * t159;
        // real block of 2
        const V x7r = io.re(7);
        const V x52r = io.re(52);
        const V t230 = x7r + x52r;
        const V t231 = x7r - x52r;
        // real block of 2
        const V x22r = io.re(22);
        const V x37r = io.re(37);
        const V t232 = x22r + x37r;
        const V t233 = x22r - x37r;
        // real block of 7, multiplier 4
        const V t234 = t232 + t230;
        const V t235 = t232 - t230;
        // real block of 7, multiplier 4
        const V t236 = t233 + t231;
        const V t237 = t233 - t231;
        // real block of 2
        const V x15r = io.re(15);
        const V x44r = io.re(44);
        const V t238 = x15r + x44r;
        const V t239 = x15r - x44r;
        // real block of 2
        const V x20r = io.re(20);
        const V x39r = io.re(39);
        const V t240 = x20r + x39r;
        const V t241 = x20r - x39r;
        // real block of 2
        const V x36r = io.re(36);
        const V x23r = io.re(23);
        const V t242 = x36r + x23r;
        const V t243 = x36r - x23r;
        // real block of 7, multiplier 4
        const V t244 = t240 - t242;
        // real block of 7, multiplier 4
        const V t245 = t241 - t243;
        // real block of 2
        const V x21r = io.re(21);
        const V x38r = io.re(38);
        const V t246 = x21r + x38r;
        const V t247 = x21r - x38r;
        // real block of 2
        const V x25r = io.re(25);
        const V x34r = io.re(34);
        const V t248 = x25r + x34r;
        const V t249 = x25r - x34r;
        // real block of 7, multiplier 4
        const V t250 = t248 + t246;
        const V t251 = t248 - t246;
        // real block of 7, multiplier 4
        const V t252 = t249 + t247;
        const V t253 = t249 - t247;
        // real block of 7, multiplier 4
        const V t254 = t240 + t242;
        const V t255 = c[0] * t254;
        const V t256 = c[1] * t254;
        const V t257 = c[2] * t254;
        const V t258 = t234 + t250;
        const V t259 = c[1] * t234;
        const V t260 = t238 - t259;
        const V t261 = c[2] * t250;
        const V t262 = c[3] * t235;
        const V t263 = c[4] * t251;
        const V t264 = t262 + t263;
        const V t265 = c[5] * t244;
        const V t266 = c[2] * t234;
        const V t267 = c[0] * t250;
        const V t268 = t266 - t267;
        const V t269 = c[4] * t235;
        const V t270 = c[5] * t251;
        const V t271 = c[3] * t244;
        const V t272 = t270 + t271;
        const V t273 = c[0] * t234;
        const V t274 = t238 - t273;
        const V t275 = c[1] * t250;
        const V t276 = c[5] * t235;
        const V t277 = c[3] * t251;
        const V t278 = t276 + t277;
        const V t279 = c[4] * t244;
        // real block of 7, multiplier 4
        const V t280 = t241 + t243;
        const V t281 = c[0] * t280;
        const V t282 = c[1] * t280;
        const V t283 = c[2] * t280;
        const V t284 = t236 + t252;
        const V t285 = c[1] * t236;
        const V t286 = t239 - t285;
        const V t287 = c[2] * t252;
        const V t288 = c[3] * t237;
        const V t289 = c[4] * t253;
        const V t290 = t288 + t289;
        const V t291 = c[5] * t245;
        const V t292 = c[2] * t236;
        const V t293 = c[0] * t252;
        const V t294 = t292 - t293;
        const V t295 = c[4] * t237;
        const V t296 = c[5] * t253;
        const V t297 = c[3] * t245;
        const V t298 = t296 + t297;
        const V t299 = c[0] * t236;
        const V t300 = t239 - t299;
        const V t301 = c[1] * t252;
        const V t302 = c[5] * t237;
        const V t303 = c[3] * t253;
        const V t304 = t302 + t303;
        const V t305 = c[4] * t245;
        // real block of 7, multiplier 4
        const V t306 = t106 + t102;
        const V t307 = t306 + t84;
        // real block of 7, multiplier 4
        const V t308 = t30 + t26;
        const V t309 = t308 + t24;
        // real block of 7, multiplier 4
        const V t310 = t258 + t254;
        const V t311 = t310 + t238;
        // real block of 7, multiplier 4
        const V t312 = t182 + t178;
        const V t313 = t312 + t176;
        // real block of 2
        const V t314 = t307 + t311;
        // real block of 2
        const V t315 = t309 + t313;
        // real block of 2
        const V t316 = t314 + t315;
        const V t317 = t314 - t315;
        // real block of 2
        const V t318 = t307 - t311;
        // real block of 2
        const V t319 = t309 - t313;
        // real block of 7, multiplier 4
        const V t320 = t108 + t109;
        const V t321 = t320 - t103;
        // real block of 7, multiplier 4
        const V t322 = t260 + t261;
        const V t323 = t322 - t255;
        // complex block of 2
        const V t324 = t321 + t323;
        const V t325 = t321 - t323;
        // real block of 7, multiplier 4
        const V t326 = t112 - t113;
        // real block of 7, multiplier 4
        const V t327 = t264 - t265;
        // complex block of 2
        const V t328 = t326 + t327;
        const V t329 = t326 - t327;
        // real block of 7, multiplier 4
        const V t330 = t32 + t33;
        const V t331 = t330 - t27;
        // real block of 7, multiplier 4
        const V t332 = t184 + t185;
        const V t333 = t332 - t179;
        // complex block of 2
        const V t334 = t331 + t333;
        const V t335 = t331 - t333;
        // real block of 7, multiplier 4
        const V t336 = t36 - t37;
        // real block of 7, multiplier 4
        const V t337 = t188 - t189;
        // complex block of 2
        const V t338 = t336 + t337;
        const V t339 = t336 - t337;
        // complex block of 2
        const V t340 = t324 + t334;
        // real block of 29, multiplier 2
        const V t341 = c[6] * t340;
        // complex block of 2
        const V t342 = t328 + t338;
        // real block of 29, multiplier 2
        const V t343 = c[7] * t342;
        const V t344 = c[6] * t342;
        // complex block of 2
        const V t345 = t324 - t334;
        // real block of 29, multiplier 2
        const V t346 = c[8] * t345;
        // complex block of 2
        const V t347 = t328 - t338;
        // real block of 29, multiplier 2
        const V t348 = c[9] * t347;
        const V t349 = c[8] * t347;
        // complex block of 2
        const V t350 = t325 - t339;
        // real block of 29, multiplier 2
        const V t351 = c[10] * t350;
        const V t352 = c[11] * t350;
        // complex block of 2
        const V t353 = t329 + t335;
        // real block of 29, multiplier 2
        const V t354 = c[11] * t353;
        const V t355 = c[10] * t353;
        // complex block of 2
        const V t356 = t325 + t339;
        // real block of 29, multiplier 2
        const V t357 = c[12] * t356;
        const V t358 = c[13] * t356;
        // complex block of 2
        const V t359 = t329 - t335;
        // real block of 29, multiplier 2
        const V t360 = c[13] * t359;
        const V t361 = c[12] * t359;
        // real block of 7, multiplier 4
        const V t362 = t116 - t104;
        const V t363 = t362 + t84;
        // real block of 7, multiplier 4
        const V t364 = t268 - t256;
        const V t365 = t364 + t238;
        // complex block of 2
        const V t366 = t363 + t365;
        // real block of 7, multiplier 4
        const V t367 = t120 - t117;
        // real block of 7, multiplier 4
        const V t368 = t272 - t269;
        // complex block of 2
        const V t369 = t367 + t368;
        const V t370 = t367 - t368;
        // real block of 7, multiplier 4
        const V t371 = t40 - t28;
        const V t372 = t371 + t24;
        // real block of 7, multiplier 4
        const V t373 = t192 - t180;
        const V t374 = t373 + t176;
        // complex block of 2
        const V t375 = t372 + t374;
        // real block of 7, multiplier 4
        const V t376 = t44 - t41;
        // real block of 7, multiplier 4
        const V t377 = t196 - t193;
        // complex block of 2
        const V t378 = t376 + t377;
        const V t379 = t376 - t377;
        // complex block of 2
        const V t380 = t363 - t365;
        // complex block of 2
        const V t381 = t380 - t379;
        const V t382 = t380 + t379;
        // complex block of 2
        const V t383 = t372 - t374;
        // complex block of 2
        const V t384 = t370 + t383;
        const V t385 = t370 - t383;
        // complex block of 2
        const V t386 = t366 + t375;
        // real block of 29, multiplier 2
        const V t387 = c[14] * t386;
        // complex block of 2
        const V t388 = t369 + t378;
        // real block of 29, multiplier 2
        const V t389 = c[15] * t388;
        const V t390 = c[14] * t388;
        // complex block of 2
        const V t391 = t366 - t375;
        // real block of 29, multiplier 2
        const V t392 = c[16] * t391;
        // complex block of 2
        const V t393 = t369 - t378;
        // real block of 29, multiplier 2
        const V t394 = c[17] * t393;
        const V t395 = c[16] * t393;
        // real block of 7, multiplier 4
        const V t396 = t122 - t123;
        const V t397 = t396 + t105;
        // real block of 7, multiplier 4
        const V t398 = t274 - t275;
        const V t399 = t398 + t257;
        // complex block of 2
        const V t400 = t397 - t399;
        // real block of 7, multiplier 4
        const V t401 = t126 + t127;
        // real block of 7, multiplier 4
        const V t402 = t278 + t279;
        // complex block of 2
        const V t403 = t401 + t402;
        const V t404 = t401 - t402;
        // real block of 7, multiplier 4
        const V t405 = t46 - t47;
        const V t406 = t405 + t29;
        // real block of 7, multiplier 4
        const V t407 = t198 - t199;
        const V t408 = t407 + t181;
        // complex block of 2
        const V t409 = t406 - t408;
        // real block of 7, multiplier 4
        const V t410 = t50 + t51;
        // real block of 7, multiplier 4
        const V t411 = t202 + t203;
        // complex block of 2
        const V t412 = t410 + t411;
        const V t413 = t410 - t411;
        // complex block of 2
        const V t414 = t397 + t399;
        // complex block of 2
        const V t415 = t406 + t408;
        // complex block of 2
        const V t416 = t414 + t415;
        const V t417 = t414 - t415;
        const V t418 = t403 + t412;
        // real block of 29, multiplier 2
        const V t419 = c[18] * t418;
        // complex block of 2
        const V t420 = t403 - t412;
        // real block of 29, multiplier 2
        const V t421 = c[19] * t420;
        // complex block of 2
        const V t422 = t400 - t413;
        // real block of 29, multiplier 2
        const V t423 = c[20] * t422;
        const V t424 = c[21] * t422;
        // complex block of 2
        const V t425 = t404 + t409;
        // real block of 29, multiplier 2
        const V t426 = c[21] * t425;
        const V t427 = c[20] * t425;
        // complex block of 2
        const V t428 = t400 + t413;
        // real block of 29, multiplier 2
        const V t429 = c[22] * t428;
        const V t430 = c[23] * t428;
        // complex block of 2
        const V t431 = t404 - t409;
        // real block of 29, multiplier 2
        const V t432 = c[23] * t431;
        const V t433 = c[22] * t431;
        // real block of 7, multiplier 4
        const V t434 = t132 + t128;
        const V t435 = t434 + t85;
        // real block of 7, multiplier 4
        const V t436 = t56 + t52;
        const V t437 = t436 + t25;
        // real block of 7, multiplier 4
        const V t438 = t284 + t280;
        const V t439 = t438 + t239;
        // real block of 7, multiplier 4
        const V t440 = t208 + t204;
        const V t441 = t440 + t177;
        // real block of 2
        const V t442 = t435 + t439;
        // real block of 2
        const V t443 = t437 + t441;
        // real block of 2
        const V t444 = t442 + t443;
        const V t445 = t442 - t443;
        // real block of 2
        const V t446 = t435 - t439;
        // real block of 2
        const V t447 = t437 - t441;
        // real block of 7, multiplier 4
        const V t448 = t134 + t135;
        const V t449 = t448 - t129;
        // real block of 7, multiplier 4
        const V t450 = t286 + t287;
        const V t451 = t450 - t281;
        // complex block of 2
        const V t452 = t449 + t451;
        const V t453 = t449 - t451;
        // real block of 7, multiplier 4
        const V t454 = t138 - t139;
        // real block of 7, multiplier 4
        const V t455 = t290 - t291;
        // complex block of 2
        const V t456 = t454 + t455;
        const V t457 = t454 - t455;
        // real block of 7, multiplier 4
        const V t458 = t58 + t59;
        const V t459 = t458 - t53;
        // real block of 7, multiplier 4
        const V t460 = t210 + t211;
        const V t461 = t460 - t205;
        // complex block of 2
        const V t462 = t459 + t461;
        const V t463 = t459 - t461;
        // real block of 7, multiplier 4
        const V t464 = t62 - t63;
        // real block of 7, multiplier 4
        const V t465 = t214 - t215;
        // complex block of 2
        const V t466 = t464 + t465;
        const V t467 = t464 - t465;
        // complex block of 2
        const V t468 = t452 + t462;
        // real block of 29, multiplier 2
        const V t469 = c[6] * t468;
        // complex block of 2
        const V t470 = t456 + t466;
        // real block of 29, multiplier 2
        const V t471 = c[7] * t470;
        const V t472 = c[6] * t470;
        // complex block of 2
        const V t473 = t452 - t462;
        // real block of 29, multiplier 2
        const V t474 = c[8] * t473;
        // complex block of 2
        const V t475 = t456 - t466;
        // real block of 29, multiplier 2
        const V t476 = c[9] * t475;
        const V t477 = c[8] * t475;
        // complex block of 2
        const V t478 = t453 - t467;
        // real block of 29, multiplier 2
        const V t479 = c[10] * t478;
        const V t480 = c[11] * t478;
        // complex block of 2
        const V t481 = t457 + t463;
        // real block of 29, multiplier 2
        const V t482 = c[11] * t481;
        const V t483 = c[10] * t481;
        // complex block of 2
        const V t484 = t453 + t467;
        // real block of 29, multiplier 2
        const V t485 = c[12] * t484;
        const V t486 = c[13] * t484;
        // complex block of 2
        const V t487 = t457 - t463;
        // real block of 29, multiplier 2
        const V t488 = c[13] * t487;
        const V t489 = c[12] * t487;
        // real block of 7, multiplier 4
        const V t490 = t142 - t130;
        const V t491 = t490 + t85;
        // real block of 7, multiplier 4
        const V t492 = t294 - t282;
        const V t493 = t492 + t239;
        // complex block of 2
        const V t494 = t491 + t493;
        // real block of 7, multiplier 4
        const V t495 = t146 - t143;
        // real block of 7, multiplier 4
        const V t496 = t298 - t295;
        // complex block of 2
        const V t497 = t495 + t496;
        const V t498 = t495 - t496;
        // real block of 7, multiplier 4
        const V t499 = t66 - t54;
        const V t500 = t499 + t25;
        // real block of 7, multiplier 4
        const V t501 = t218 - t206;
        const V t502 = t501 + t177;
        // complex block of 2
        const V t503 = t500 + t502;
        // real block of 7, multiplier 4
        const V t504 = t70 - t67;
        // real block of 7, multiplier 4
        const V t505 = t222 - t219;
        // complex block of 2
        const V t506 = t504 + t505;
        const V t507 = t504 - t505;
        // complex block of 2
        const V t508 = t491 - t493;
        // complex block of 2
        const V t509 = t508 - t507;
        const V t510 = t508 + t507;
        // complex block of 2
        const V t511 = t500 - t502;
        // complex block of 2
        const V t512 = t498 + t511;
        const V t513 = t498 - t511;
        // complex block of 2
        const V t514 = t494 + t503;
        // real block of 29, multiplier 2
        const V t515 = c[14] * t514;
        // complex block of 2
        const V t516 = t497 + t506;
        // real block of 29, multiplier 2
        const V t517 = c[15] * t516;
        const V t518 = c[14] * t516;
        // complex block of 2
        const V t519 = t494 - t503;
        // real block of 29, multiplier 2
        const V t520 = c[16] * t519;
        // complex block of 2
        const V t521 = t497 - t506;
        // real block of 29, multiplier 2
        const V t522 = c[17] * t521;
        const V t523 = c[16] * t521;
        // real block of 7, multiplier 4
        const V t524 = t148 - t149;
        const V t525 = t524 + t131;
        // real block of 7, multiplier 4
        const V t526 = t300 - t301;
        const V t527 = t526 + t283;
        // complex block of 2
        const V t528 = t525 - t527;
        // real block of 7, multiplier 4
        const V t529 = t152 + t153;
        // real block of 7, multiplier 4
        const V t530 = t304 + t305;
        // complex block of 2
        const V t531 = t529 + t530;
        const V t532 = t529 - t530;
        // real block of 7, multiplier 4
        const V t533 = t72 - t73;
        const V t534 = t533 + t55;
        // real block of 7, multiplier 4
        const V t535 = t224 - t225;
        const V t536 = t535 + t207;
        // complex block of 2
        const V t537 = t534 - t536;
        // real block of 7, multiplier 4
        const V t538 = t76 + t77;
        // real block of 7, multiplier 4
        const V t539 = t228 + t229;
        // complex block of 2
        const V t540 = t538 + t539;
        const V t541 = t538 - t539;
        // complex block of 2
        const V t542 = t525 + t527;
        // complex block of 2
        const V t543 = t534 + t536;
        // complex block of 2
        const V t544 = t542 + t543;
        const V t545 = t542 - t543;
        const V t546 = t531 + t540;
        // real block of 29, multiplier 2
        const V t547 = c[18] * t546;
        // complex block of 2
        const V t548 = t531 - t540;
        // real block of 29, multiplier 2
        const V t549 = c[19] * t548;
        // complex block of 2
        const V t550 = t528 - t541;
        // real block of 29, multiplier 2
        const V t551 = c[20] * t550;
        const V t552 = c[21] * t550;
        // complex block of 2
        const V t553 = t532 + t537;
        // real block of 29, multiplier 2
        const V t554 = c[21] * t553;
        const V t555 = c[20] * t553;
        // complex block of 2
        const V t556 = t528 + t541;
        // real block of 29, multiplier 2
        const V t557 = c[22] * t556;
        const V t558 = c[23] * t556;
        // complex block of 2
        const V t559 = t532 - t537;
        // real block of 29, multiplier 2
        const V t560 = c[23] * t559;
        const V t561 = c[22] * t559;
        // real block of 29, multiplier 2
        const V t562 = t0 + t316;
        // complex block of 59
        const V t563 = c[90] * t562;
        // real block of 29, multiplier 2
        const V t564 = c[32] * t316;
        const V t565 = t0 - t564;
        const V t566 = c[24] * t417;
        const V t567 = t566 + t421;
        const V t568 = c[25] * t416;
        const V t569 = t568 + t419;
        // complex block of 2
        const V t570 = t569 - t567;
        // real block of 29, multiplier 2
        const V t571 = t341 + t343;
        const V t572 = t346 + t348;
        // complex block of 2
        const V t573 = t571 + t572;
        const V t574 = t571 - t572;
        // spectrum block of 7, multiplier 2
        const V t575 = c[2] * t573;
        // real block of 29, multiplier 2
        const V t576 = t392 - t394;
        const V t577 = t387 - t389;
        // complex block of 2
        const V t578 = t577 - t576;
        const V t579 = t577 + t576;
        // spectrum block of 7, multiplier 2
        const V t580 = c[0] * t578;
        // real block of 29, multiplier 2
        const V t581 = c[33] * t317;
        // spectrum block of 2
        const V t582 = t565 - t581;
        // spectrum block of 7, multiplier 2
        const V t583 = c[0] * t574;
        const V t584 = c[1] * t574;
        const V t585 = t582 - t583;
        const V t586 = t582 - t584;
        // spectrum block of 2
        const V t587 = t565 + t581;
        // spectrum block of 7, multiplier 2
        const V t588 = c[0] * t573;
        const V t589 = c[1] * t573;
        const V t590 = t587 - t588;
        const V t591 = t587 - t589;
        // complex block of 2
        const V t592 = t569 + t567;
        // spectrum block of 7, multiplier 2
        const V t593 = c[1] * t592;
        const V t594 = c[2] * t592;
        const V t595 = t574 + t579;
        const V t596 = c[2] * t574;
        const V t597 = c[0] * t579;
        const V t598 = t596 - t597;
        const V t599 = c[1] * t579;
        const V t600 = c[2] * t579;
        // spectrum block of 7, multiplier 2
        const V t601 = t573 + t578;
        const V t602 = t575 - t580;
        const V t603 = c[1] * t570;
        const V t604 = t602 - t603;
        const V t605 = c[1] * t578;
        const V t606 = c[2] * t570;
        const V t607 = c[2] * t578;
        const V t608 = c[0] * t570;
        // real block of 29, multiplier 2
        const V t609 = c[26] * t385;
        const V t610 = c[27] * t382;
        const V t611 = t610 + t609;
        const V t612 = c[28] * t384;
        const V t613 = c[29] * t381;
        const V t614 = t613 - t612;
        // complex block of 2
        const V t615 = t611 + t614;
        // real block of 29, multiplier 2
        const V t616 = c[26] * t382;
        const V t617 = c[27] * t385;
        const V t618 = t617 - t616;
        const V t619 = c[28] * t381;
        const V t620 = c[29] * t384;
        const V t621 = t620 + t619;
        // complex block of 2
        const V t622 = t618 + t621;
        const V t623 = t614 - t611;
        // spectrum block of 7, multiplier 2
        const V t624 = c[3] * t623;
        // complex block of 2
        const V t625 = t618 - t621;
        // spectrum block of 7, multiplier 2
        const V t626 = c[1] * t625;
        // mirrored skew block of 14
        const V t627 = c[0] * t615;
        const V t628 = c[5] * t622;
        const V t629 = t628 + t627;
        const V t630 = c[0] * t622;
        const V t631 = c[5] * t615;
        const V t632 = t630 - t631;
        // real block of 29, multiplier 2
        const V t633 = c[19] * t417;
        const V t634 = c[24] * t420;
        const V t635 = t633 - t634;
        const V t636 = c[18] * t416;
        const V t637 = c[25] * t418;
        const V t638 = t637 - t636;
        // complex block of 2
        const V t639 = t638 - t635;
        // spectrum block of 7, multiplier 2
        const V t640 = c[4] * t639;
        // complex block of 2
        const V t641 = t638 + t635;
        // spectrum block of 7, multiplier 2
        const V t642 = c[3] * t641;
        const V t643 = c[4] * t641;
        const V t644 = c[5] * t641;
        // real block of 29, multiplier 2
        const V t645 = t357 + t360;
        const V t646 = t351 - t354;
        // complex block of 2
        const V t647 = t645 + t646;
        const V t648 = t646 - t645;
        // mirrored skew block of 14
        const V t649 = c[2] * t647;
        const V t650 = c[4] * t647;
        // real block of 29, multiplier 2
        const V t651 = t358 - t361;
        const V t652 = t355 + t352;
        // complex block of 2
        const V t653 = t651 - t652;
        const V t654 = t651 + t652;
        // mirrored skew block of 14
        const V t655 = c[4] * t653;
        const V t656 = c[2] * t653;
        // real block of 29, multiplier 2
        const V t657 = t432 - t429;
        const V t658 = t426 - t423;
        // complex block of 2
        const V t659 = t657 + t658;
        const V t660 = t658 - t657;
        // mirrored skew block of 14
        const V t661 = c[1] * t659;
        const V t662 = c[3] * t659;
        // real block of 29, multiplier 2
        const V t663 = t433 + t430;
        const V t664 = t427 + t424;
        // complex block of 2
        const V t665 = t663 + t664;
        const V t666 = t664 - t663;
        // mirrored skew block of 14
        const V t667 = c[3] * t665;
        const V t668 = c[1] * t665;
        // real block of 29, multiplier 2
        const V t669 = c[30] * t318;
        const V t670 = c[31] * t319;
        const V t671 = t670 + t669;
        // mirrored skew block of 14
        const V t672 = t655 + t649;
        const V t673 = t661 - t667;
        // spectrum block of 7, multiplier 2
        const V t674 = t673 + t672;
        const V t675 = c[2] * t673;
        const V t676 = c[0] * t672;
        const V t677 = c[0] * t673;
        const V t678 = c[1] * t672;
        const V t679 = c[1] * t673;
        // mirrored skew block of 14
        const V t680 = t656 - t650;
        // spectrum block of 7, multiplier 2
        const V t681 = c[3] * t680;
        // mirrored skew block of 14
        const V t682 = t662 + t668;
        // spectrum block of 7, multiplier 2
        const V t683 = c[5] * t682;
        // spectrum block of 7, multiplier 2
        const V t684 = t666 + t654;
        const V t685 = c[2] * t666;
        const V t686 = c[0] * t654;
        const V t687 = t685 - t686;
        const V t688 = c[4] * t660;
        const V t689 = c[5] * t648;
        const V t690 = t688 + t689;
        const V t691 = c[0] * t666;
        const V t692 = t671 - t691;
        const V t693 = c[1] * t654;
        const V t694 = c[5] * t660;
        const V t695 = c[3] * t648;
        const V t696 = c[1] * t666;
        const V t697 = t671 - t696;
        const V t698 = c[2] * t654;
        const V t699 = c[3] * t660;
        const V t700 = c[4] * t648;
        // real block of 29, multiplier 2
        const V t701 = c[7] * t340;
        const V t702 = t344 - t701;
        const V t703 = c[9] * t345;
        const V t704 = t349 - t703;
        // complex block of 2
        const V t705 = t702 + t704;
        // real block of 29, multiplier 2
        const V t706 = c[17] * t391;
        const V t707 = t395 + t706;
        const V t708 = c[15] * t386;
        const V t709 = t390 + t708;
        // complex block of 2
        const V t710 = t709 - t707;
        // complex block of 2
        const V t711 = t702 - t704;
        // spectrum block of 7, multiplier 2
        const V t712 = c[4] * t711;
        const V t713 = c[5] * t711;
        const V t714 = c[3] * t711;
        // complex block of 2
        const V t715 = t709 + t707;
        // spectrum block of 7, multiplier 2
        const V t716 = c[5] * t715;
        const V t717 = c[3] * t715;
        const V t718 = c[4] * t715;
        // spectrum block of 7, multiplier 2
        const V t719 = c[4] * t705;
        const V t720 = c[5] * t710;
        const V t721 = t719 + t720;
        const V t722 = c[5] * t705;
        const V t723 = c[3] * t710;
        const V t724 = c[3] * t705;
        const V t725 = c[4] * t710;
        // real block of 29, multiplier 2
        const V t726 = c[30] * t319;
        const V t727 = c[31] * t318;
        const V t728 = t727 - t726;
        // spectrum block of 7, multiplier 2
        const V t729 = t595 + t592;
        const V t730 = t729 + t582;
        // complex block of 59
        const V t731 = c[34] * t730;
        const V t732 = c[35] * t730;
        // spectrum block of 7, multiplier 2
        const V t733 = t598 - t593;
        const V t734 = t733 + t582;
        const V t735 = t712 + t716;
        const V t736 = c[3] * t639;
        const V t737 = t735 + t736;
        const V t738 = t734 - t737;
        const V t739 = t734 + t737;
        const V t740 = t585 - t599;
        const V t741 = t740 + t594;
        const V t742 = t713 - t717;
        const V t743 = t742 - t640;
        const V t744 = t741 - t743;
        // complex block of 59
        const V t745 = c[36] * t744;
        const V t746 = c[37] * t744;
        // spectrum block of 7, multiplier 2
        const V t747 = t741 + t743;
        // complex block of 59
        const V t748 = c[38] * t747;
        const V t749 = c[39] * t747;
        // spectrum block of 7, multiplier 2
        const V t750 = t586 + t600;
        const V t751 = c[0] * t592;
        const V t752 = t750 - t751;
        const V t753 = t714 - t718;
        const V t754 = c[5] * t639;
        const V t755 = t753 + t754;
        const V t756 = t752 - t755;
        const V t757 = t752 + t755;
        // spectrum block of 7, multiplier 2
        const V t758 = t601 + t570;
        const V t759 = t758 + t587;
        // complex block of 59
        const V t760 = c[40] * t759;
        const V t761 = c[41] * t759;
        // spectrum block of 7, multiplier 2
        const V t762 = t604 + t587;
        const V t763 = t721 + t642;
        const V t764 = t762 - t763;
        const V t765 = t762 + t763;
        // spectrum block of 7, multiplier 2
        const V t766 = t674 + t629;
        const V t767 = t766 + t728;
        // complex block of 59
        const V t768 = c[42] * t765;
        const V t769 = c[43] * t764;
        const V t770 = c[44] * t767;
        const V t771 = t769 - t770;
        // spectrum block of 7, multiplier 2
        const V t772 = t590 - t605;
        const V t773 = t772 + t606;
        const V t774 = t722 - t723;
        const V t775 = t774 - t643;
        const V t776 = t773 - t775;
        // complex block of 59
        const V t777 = c[45] * t776;
        const V t778 = c[46] * t776;
        // spectrum block of 7, multiplier 2
        const V t779 = t773 + t775;
        // complex block of 59
        const V t780 = c[47] * t779;
        const V t781 = c[48] * t779;
        // spectrum block of 7, multiplier 2
        const V t782 = t591 + t607;
        const V t783 = t782 - t608;
        const V t784 = t724 - t725;
        const V t785 = t784 + t644;
        const V t786 = t783 - t785;
        // complex block of 59
        const V t787 = c[49] * t786;
        // spectrum block of 7, multiplier 2
        const V t788 = t783 + t785;
        // complex block of 59
        const V t789 = c[50] * t788;
        // spectrum block of 7, multiplier 2
        const V t790 = t684 + t625;
        const V t791 = t790 + t671;
        // complex block of 59
        const V t792 = c[35] * t791;
        const V t793 = c[34] * t791;
        // spectrum block of 7, multiplier 2
        const V t794 = t687 - t626;
        const V t795 = t794 + t671;
        const V t796 = t690 + t624;
        const V t797 = t795 + t796;
        // complex block of 59
        const V t798 = c[37] * t797;
        const V t799 = c[36] * t797;
        // spectrum block of 7, multiplier 2
        const V t800 = t795 - t796;
        // complex block of 59
        const V t801 = c[39] * t800;
        const V t802 = c[38] * t800;
        // spectrum block of 7, multiplier 2
        const V t803 = t692 - t693;
        const V t804 = c[2] * t625;
        const V t805 = t803 + t804;
        const V t806 = t695 - t694;
        const V t807 = c[4] * t623;
        const V t808 = t806 + t807;
        const V t809 = t805 - t808;
        const V t810 = t805 + t808;
        const V t811 = t697 + t698;
        const V t812 = c[0] * t625;
        const V t813 = t811 - t812;
        const V t814 = t700 - t699;
        const V t815 = c[5] * t623;
        const V t816 = t814 - t815;
        const V t817 = t813 - t816;
        const V t818 = t813 + t816;
        // spectrum block of 7, multiplier 2
        const V t819 = t675 - t676;
        const V t820 = c[1] * t629;
        const V t821 = t819 - t820;
        const V t822 = c[4] * t682;
        const V t823 = c[5] * t680;
        const V t824 = t822 - t823;
        const V t825 = c[3] * t632;
        const V t826 = t821 + t728;
        const V t827 = t824 - t825;
        const V t828 = t826 - t827;
        const V t829 = t826 + t827;
        const V t830 = t728 - t677;
        const V t831 = t830 - t678;
        const V t832 = c[2] * t629;
        const V t833 = t831 + t832;
        const V t834 = t683 + t681;
        const V t835 = c[4] * t632;
        const V t836 = t834 + t835;
        const V t837 = t833 - t836;
        const V t838 = t833 + t836;
        // complex block of 59
        const V t839 = c[51] * t838;
        // spectrum block of 7, multiplier 2
        const V t840 = t728 - t679;
        const V t841 = c[2] * t672;
        const V t842 = t840 + t841;
        const V t843 = c[0] * t629;
        const V t844 = c[3] * t682;
        const V t845 = c[4] * t680;
        const V t846 = t844 + t845;
        const V t847 = c[5] * t632;
        const V t848 = t842 - t843;
        const V t849 = t846 - t847;
        const V t850 = t848 - t849;
        const V t851 = t848 + t849;
        // real block of 29, multiplier 2
        const V t852 = t1 + t444;
        const V t853 = c[32] * t444;
        const V t854 = t1 - t853;
        const V t855 = c[24] * t545;
        const V t856 = t855 + t549;
        const V t857 = c[25] * t544;
        const V t858 = t857 + t547;
        // complex block of 2
        const V t859 = t858 - t856;
        // real block of 29, multiplier 2
        const V t860 = t469 + t471;
        const V t861 = t474 + t476;
        // complex block of 2
        const V t862 = t860 + t861;
        const V t863 = t860 - t861;
        // spectrum block of 7, multiplier 2
        const V t864 = c[2] * t862;
        // real block of 29, multiplier 2
        const V t865 = t520 - t522;
        const V t866 = t515 - t517;
        // complex block of 2
        const V t867 = t866 - t865;
        const V t868 = t866 + t865;
        // spectrum block of 7, multiplier 2
        const V t869 = c[0] * t867;
        // real block of 29, multiplier 2
        const V t870 = c[33] * t445;
        // spectrum block of 2
        const V t871 = t854 - t870;
        // spectrum block of 7, multiplier 2
        const V t872 = c[0] * t863;
        const V t873 = c[1] * t863;
        const V t874 = t871 - t872;
        const V t875 = t871 - t873;
        // spectrum block of 2
        const V t876 = t854 + t870;
        // spectrum block of 7, multiplier 2
        const V t877 = c[0] * t862;
        const V t878 = c[1] * t862;
        const V t879 = t876 - t877;
        const V t880 = t876 - t878;
        // complex block of 2
        const V t881 = t858 + t856;
        // spectrum block of 7, multiplier 2
        const V t882 = c[1] * t881;
        const V t883 = c[2] * t881;
        const V t884 = t863 + t868;
        const V t885 = c[2] * t863;
        const V t886 = c[0] * t868;
        const V t887 = t885 - t886;
        const V t888 = c[1] * t868;
        const V t889 = c[2] * t868;
        // spectrum block of 7, multiplier 2
        const V t890 = t862 + t867;
        const V t891 = t864 - t869;
        const V t892 = c[1] * t859;
        const V t893 = t891 - t892;
        const V t894 = c[1] * t867;
        const V t895 = c[2] * t859;
        const V t896 = c[2] * t867;
        const V t897 = c[0] * t859;
        // real block of 29, multiplier 2
        const V t898 = c[26] * t513;
        const V t899 = c[27] * t510;
        const V t900 = t899 + t898;
        const V t901 = c[28] * t512;
        const V t902 = c[29] * t509;
        const V t903 = t902 - t901;
        // complex block of 2
        const V t904 = t900 + t903;
        // real block of 29, multiplier 2
        const V t905 = c[26] * t510;
        const V t906 = c[27] * t513;
        const V t907 = t906 - t905;
        const V t908 = c[28] * t509;
        const V t909 = c[29] * t512;
        const V t910 = t909 + t908;
        // complex block of 2
        const V t911 = t907 + t910;
        const V t912 = t903 - t900;
        // spectrum block of 7, multiplier 2
        const V t913 = c[3] * t912;
        // complex block of 2
        const V t914 = t907 - t910;
        // spectrum block of 7, multiplier 2
        const V t915 = c[1] * t914;
        // mirrored skew block of 14
        const V t916 = c[0] * t904;
        const V t917 = c[5] * t911;
        const V t918 = t917 + t916;
        const V t919 = c[0] * t911;
        const V t920 = c[5] * t904;
        const V t921 = t919 - t920;
        // real block of 29, multiplier 2
        const V t922 = c[19] * t545;
        const V t923 = c[24] * t548;
        const V t924 = t922 - t923;
        const V t925 = c[18] * t544;
        const V t926 = c[25] * t546;
        const V t927 = t926 - t925;
        // complex block of 2
        const V t928 = t927 - t924;
        // spectrum block of 7, multiplier 2
        const V t929 = c[4] * t928;
        // complex block of 2
        const V t930 = t927 + t924;
        // spectrum block of 7, multiplier 2
        const V t931 = c[3] * t930;
        const V t932 = c[4] * t930;
        const V t933 = c[5] * t930;
        // real block of 29, multiplier 2
        const V t934 = t485 + t488;
        const V t935 = t479 - t482;
        // complex block of 2
        const V t936 = t934 + t935;
        const V t937 = t935 - t934;
        // mirrored skew block of 14
        const V t938 = c[2] * t936;
        const V t939 = c[4] * t936;
        // real block of 29, multiplier 2
        const V t940 = t486 - t489;
        const V t941 = t483 + t480;
        // complex block of 2
        const V t942 = t940 - t941;
        const V t943 = t940 + t941;
        // mirrored skew block of 14
        const V t944 = c[4] * t942;
        const V t945 = c[2] * t942;
        // real block of 29, multiplier 2
        const V t946 = t560 - t557;
        const V t947 = t554 - t551;
        // complex block of 2
        const V t948 = t946 + t947;
        const V t949 = t947 - t946;
        // mirrored skew block of 14
        const V t950 = c[1] * t948;
        const V t951 = c[3] * t948;
        // real block of 29, multiplier 2
        const V t952 = t561 + t558;
        const V t953 = t555 + t552;
        // complex block of 2
        const V t954 = t952 + t953;
        const V t955 = t953 - t952;
        // mirrored skew block of 14
        const V t956 = c[3] * t954;
        const V t957 = c[1] * t954;
        // real block of 29, multiplier 2
        const V t958 = c[30] * t446;
        const V t959 = c[31] * t447;
        const V t960 = t959 + t958;
        // mirrored skew block of 14
        const V t961 = t944 + t938;
        const V t962 = t950 - t956;
        // spectrum block of 7, multiplier 2
        const V t963 = t962 + t961;
        const V t964 = c[2] * t962;
        const V t965 = c[0] * t961;
        const V t966 = c[0] * t962;
        const V t967 = c[1] * t961;
        const V t968 = c[1] * t962;
        // mirrored skew block of 14
        const V t969 = t945 - t939;
        // spectrum block of 7, multiplier 2
        const V t970 = c[3] * t969;
        // mirrored skew block of 14
        const V t971 = t951 + t957;
        // spectrum block of 7, multiplier 2
        const V t972 = c[5] * t971;
        // spectrum block of 7, multiplier 2
        const V t973 = t955 + t943;
        const V t974 = c[2] * t955;
        const V t975 = c[0] * t943;
        const V t976 = t974 - t975;
        const V t977 = c[4] * t949;
        const V t978 = c[5] * t937;
        const V t979 = t977 + t978;
        const V t980 = c[0] * t955;
        const V t981 = t960 - t980;
        const V t982 = c[1] * t943;
        const V t983 = c[5] * t949;
        const V t984 = c[3] * t937;
        const V t985 = c[1] * t955;
        const V t986 = t960 - t985;
        const V t987 = c[2] * t943;
        const V t988 = c[3] * t949;
        const V t989 = c[4] * t937;
        // real block of 29, multiplier 2
        const V t990 = c[7] * t468;
        const V t991 = t472 - t990;
        const V t992 = c[9] * t473;
        const V t993 = t477 - t992;
        // complex block of 2
        const V t994 = t991 + t993;
        // real block of 29, multiplier 2
        const V t995 = c[17] * t519;
        const V t996 = t523 + t995;
        const V t997 = c[15] * t514;
        const V t998 = t518 + t997;
        // complex block of 2
        const V t999 = t998 - t996;
        // complex block of 2
        const V t1000 = t991 - t993;
        // spectrum block of 7, multiplier 2
        const V t1001 = c[4] * t1000;
        const V t1002 = c[5] * t1000;
        const V t1003 = c[3] * t1000;
        // complex block of 2
        const V t1004 = t998 + t996;
        // spectrum block of 7, multiplier 2
        const V t1005 = c[5] * t1004;
        const V t1006 = c[3] * t1004;
        const V t1007 = c[4] * t1004;
        // spectrum block of 7, multiplier 2
        const V t1008 = c[4] * t994;
        const V t1009 = c[5] * t999;
        const V t1010 = t1008 + t1009;
        const V t1011 = c[5] * t994;
        const V t1012 = c[3] * t999;
        const V t1013 = c[3] * t994;
        const V t1014 = c[4] * t999;
        // real block of 29, multiplier 2
        const V t1015 = c[30] * t447;
        const V t1016 = c[31] * t446;
        const V t1017 = t1016 - t1015;
        // spectrum block of 7, multiplier 2
        const V t1018 = t884 + t881;
        const V t1019 = t1018 + t871;
        // complex block of 59
        const V t1020 = c[52] * t1019;
        const V t1021 = c[53] * t1019;
        // spectrum block of 7, multiplier 2
        const V t1022 = t887 - t882;
        const V t1023 = t1022 + t871;
        const V t1024 = t1001 + t1005;
        const V t1025 = c[3] * t928;
        const V t1026 = t1024 + t1025;
        const V t1027 = t1023 - t1026;
        const V t1028 = t1023 + t1026;
        const V t1029 = t874 - t888;
        const V t1030 = t1029 + t883;
        const V t1031 = t1002 - t1006;
        const V t1032 = t1031 - t929;
        const V t1033 = t1030 - t1032;
        // complex block of 59
        const V t1034 = c[54] * t1033;
        const V t1035 = c[55] * t1033;
        // spectrum block of 7, multiplier 2
        const V t1036 = t1030 + t1032;
        // complex block of 59
        const V t1037 = c[56] * t1036;
        const V t1038 = c[57] * t1036;
        // spectrum block of 7, multiplier 2
        const V t1039 = t875 + t889;
        const V t1040 = c[0] * t881;
        const V t1041 = t1039 - t1040;
        const V t1042 = t1003 - t1007;
        const V t1043 = c[5] * t928;
        const V t1044 = t1042 + t1043;
        const V t1045 = t1041 - t1044;
        const V t1046 = t1041 + t1044;
        // spectrum block of 7, multiplier 2
        const V t1047 = t890 + t859;
        const V t1048 = t1047 + t876;
        // complex block of 59
        const V t1049 = c[58] * t1048;
        const V t1050 = c[59] * t1048;
        // spectrum block of 7, multiplier 2
        const V t1051 = t893 + t876;
        const V t1052 = t1010 + t931;
        const V t1053 = t1051 - t1052;
        const V t1054 = t1051 + t1052;
        // spectrum block of 7, multiplier 2
        const V t1055 = t963 + t918;
        const V t1056 = t1055 + t1017;
        // complex block of 59
        const V t1057 = c[60] * t1053;
        const V t1058 = c[61] * t1056;
        const V t1059 = t1057 - t1058;
        const V t1060 = c[62] * t1054;
        // spectrum block of 7, multiplier 2
        const V t1061 = t879 - t894;
        const V t1062 = t1061 + t895;
        const V t1063 = t1011 - t1012;
        const V t1064 = t1063 - t932;
        const V t1065 = t1062 - t1064;
        // complex block of 59
        const V t1066 = c[63] * t1065;
        const V t1067 = c[64] * t1065;
        // spectrum block of 7, multiplier 2
        const V t1068 = t1062 + t1064;
        // complex block of 59
        const V t1069 = c[65] * t1068;
        const V t1070 = c[66] * t1068;
        // spectrum block of 7, multiplier 2
        const V t1071 = t880 + t896;
        const V t1072 = t1071 - t897;
        const V t1073 = t1013 - t1014;
        const V t1074 = t1073 + t933;
        const V t1075 = t1072 - t1074;
        // complex block of 59
        const V t1076 = c[67] * t1075;
        // spectrum block of 7, multiplier 2
        const V t1077 = t1072 + t1074;
        // complex block of 59
        const V t1078 = c[68] * t1077;
        // spectrum block of 7, multiplier 2
        const V t1079 = t973 + t914;
        const V t1080 = t1079 + t960;
        // complex block of 59
        const V t1081 = c[53] * t1080;
        const V t1082 = c[52] * t1080;
        // spectrum block of 7, multiplier 2
        const V t1083 = t976 - t915;
        const V t1084 = t1083 + t960;
        const V t1085 = t979 + t913;
        const V t1086 = t1084 + t1085;
        // complex block of 59
        const V t1087 = c[55] * t1086;
        const V t1088 = c[54] * t1086;
        // spectrum block of 7, multiplier 2
        const V t1089 = t1084 - t1085;
        // complex block of 59
        const V t1090 = c[57] * t1089;
        const V t1091 = c[56] * t1089;
        // spectrum block of 7, multiplier 2
        const V t1092 = t981 - t982;
        const V t1093 = c[2] * t914;
        const V t1094 = t1092 + t1093;
        const V t1095 = t984 - t983;
        const V t1096 = c[4] * t912;
        const V t1097 = t1095 + t1096;
        const V t1098 = t1094 - t1097;
        const V t1099 = t1094 + t1097;
        const V t1100 = t986 + t987;
        const V t1101 = c[0] * t914;
        const V t1102 = t1100 - t1101;
        const V t1103 = t989 - t988;
        const V t1104 = c[5] * t912;
        const V t1105 = t1103 - t1104;
        const V t1106 = t1102 - t1105;
        const V t1107 = t1102 + t1105;
        // spectrum block of 7, multiplier 2
        const V t1108 = t964 - t965;
        const V t1109 = c[1] * t918;
        const V t1110 = t1108 - t1109;
        const V t1111 = c[4] * t971;
        const V t1112 = c[5] * t969;
        const V t1113 = t1111 - t1112;
        const V t1114 = c[3] * t921;
        const V t1115 = t1110 + t1017;
        const V t1116 = t1113 - t1114;
        const V t1117 = t1115 - t1116;
        const V t1118 = t1115 + t1116;
        const V t1119 = t1017 - t966;
        const V t1120 = t1119 - t967;
        const V t1121 = c[2] * t918;
        const V t1122 = t1120 + t1121;
        const V t1123 = t972 + t970;
        const V t1124 = c[4] * t921;
        const V t1125 = t1123 + t1124;
        const V t1126 = t1122 - t1125;
        const V t1127 = t1122 + t1125;
        // complex block of 59
        const V t1128 = c[69] * t1127;
        // spectrum block of 7, multiplier 2
        const V t1129 = t1017 - t968;
        const V t1130 = c[2] * t961;
        const V t1131 = t1129 + t1130;
        const V t1132 = c[0] * t918;
        const V t1133 = c[3] * t971;
        const V t1134 = c[4] * t969;
        const V t1135 = t1133 + t1134;
        const V t1136 = c[5] * t921;
        const V t1137 = t1131 - t1132;
        const V t1138 = t1135 - t1136;
        const V t1139 = t1137 - t1138;
        const V t1140 = t1137 + t1138;
        // real block of 2
        const V x1i = io.im(1);
        const V x58i = io.im(58);
        const V t1141 = x1i + x58i;
        const V t1142 = x1i - x58i;
        // real block of 2
        const V x57i = io.im(57);
        const V x2i = io.im(2);
        const V t1143 = x57i + x2i;
        const V t1144 = x57i - x2i;
        // real block of 2
        const V x48i = io.im(48);
        const V x11i = io.im(11);
        const V t1145 = x48i + x11i;
        const V t1146 = x48i - x11i;
        // real block of 7, multiplier 4
        const V t1147 = t1143 + t1145;
        const V t1148 = t1143 - t1145;
        // real block of 7, multiplier 4
        const V t1149 = t1144 + t1146;
        const V t1150 = t1144 - t1146;
        // real block of 2
        const V x49i = io.im(49);
        const V x10i = io.im(10);
        const V t1151 = x49i + x10i;
        const V t1152 = x49i - x10i;
        // real block of 2
        const V x46i = io.im(46);
        const V x13i = io.im(13);
        const V t1153 = x46i + x13i;
        const V t1154 = x46i - x13i;
        // real block of 7, multiplier 4
        const V t1155 = t1151 + t1153;
        const V t1156 = t1151 - t1153;
        // real block of 7, multiplier 4
        const V t1157 = t1152 + t1154;
        const V t1158 = t1152 - t1154;
        // real block of 2
        const V x12i = io.im(12);
        const V x47i = io.im(47);
        const V t1159 = x12i + x47i;
        const V t1160 = x12i - x47i;
        // real block of 2
        const V x28i = io.im(28);
        const V x31i = io.im(31);
        const V t1161 = x28i + x31i;
        const V t1162 = x28i - x31i;
        // real block of 7, multiplier 4
        const V t1163 = t1161 - t1159;
        // real block of 7, multiplier 4
        const V t1164 = t1162 - t1160;
        // real block of 2
        const V x35i = io.im(35);
        const V x24i = io.im(24);
        const V t1165 = x35i + x24i;
        const V t1166 = x35i - x24i;
        // real block of 7, multiplier 4
        const V t1167 = t1161 + t1159;
        const V t1168 = c[0] * t1167;
        const V t1169 = c[1] * t1167;
        const V t1170 = c[2] * t1167;
        const V t1171 = t1155 + t1147;
        const V t1172 = c[1] * t1155;
        const V t1173 = t1165 - t1172;
        const V t1174 = c[2] * t1147;
        const V t1175 = c[3] * t1156;
        const V t1176 = c[4] * t1148;
        const V t1177 = t1175 + t1176;
        const V t1178 = c[5] * t1163;
        const V t1179 = c[2] * t1155;
        const V t1180 = c[0] * t1147;
        const V t1181 = t1179 - t1180;
        const V t1182 = c[4] * t1156;
        const V t1183 = c[5] * t1148;
        const V t1184 = c[3] * t1163;
        const V t1185 = t1183 + t1184;
        const V t1186 = c[0] * t1155;
        const V t1187 = t1165 - t1186;
        const V t1188 = c[1] * t1147;
        const V t1189 = c[5] * t1156;
        const V t1190 = c[3] * t1148;
        const V t1191 = t1189 + t1190;
        const V t1192 = c[4] * t1163;
        // real block of 7, multiplier 4
        const V t1193 = t1162 + t1160;
        const V t1194 = c[0] * t1193;
        const V t1195 = c[1] * t1193;
        const V t1196 = c[2] * t1193;
        const V t1197 = t1157 + t1149;
        const V t1198 = c[1] * t1157;
        const V t1199 = t1166 - t1198;
        const V t1200 = c[2] * t1149;
        const V t1201 = c[3] * t1158;
        const V t1202 = c[4] * t1150;
        const V t1203 = t1201 + t1202;
        const V t1204 = c[5] * t1164;
        const V t1205 = c[2] * t1157;
        const V t1206 = c[0] * t1149;
        const V t1207 = t1205 - t1206;
        const V t1208 = c[4] * t1158;
        const V t1209 = c[5] * t1150;
        const V t1210 = c[3] * t1164;
        const V t1211 = t1209 + t1210;
        const V t1212 = c[0] * t1157;
        const V t1213 = t1166 - t1212;
        const V t1214 = c[1] * t1149;
        const V t1215 = c[5] * t1158;
        const V t1216 = c[3] * t1150;
        const V t1217 = t1215 + t1216;
        const V t1218 = c[4] * t1164;
        // real block of 2
        const V x3i = io.im(3);
        const V x56i = io.im(56);
        const V t1219 = x3i + x56i;
        const V t1220 = x3i - x56i;
        // real block of 2
        const V x41i = io.im(41);
        const V x18i = io.im(18);
        const V t1221 = x41i + x18i;
        const V t1222 = x41i - x18i;
        // real block of 7, multiplier 4
        const V t1223 = t1219 - t1221;
        // real block of 7, multiplier 4
        const V t1224 = t1220 - t1222;
        // real block of 2
        const V x4i = io.im(4);
        const V x55i = io.im(55);
        const V t1225 = x4i + x55i;
        const V t1226 = x4i - x55i;
        // real block of 2
        const V x51i = io.im(51);
        const V x8i = io.im(8);
        const V t1227 = x51i + x8i;
        const V t1228 = x51i - x8i;
        // real block of 2
        const V x17i = io.im(17);
        const V x42i = io.im(42);
        const V t1229 = x17i + x42i;
        const V t1230 = x17i - x42i;
        // real block of 7, multiplier 4
        const V t1231 = t1227 + t1229;
        const V t1232 = t1227 - t1229;
        // real block of 7, multiplier 4
        const V t1233 = t1228 + t1230;
        const V t1234 = t1228 - t1230;
        // real block of 2
        const V x45i = io.im(45);
        const V x14i = io.im(14);
        const V t1235 = x45i + x14i;
        const V t1236 = x45i - x14i;
        // real block of 2
        const V x26i = io.im(26);
        const V x33i = io.im(33);
        const V t1237 = x26i + x33i;
        const V t1238 = x26i - x33i;
        // real block of 7, multiplier 4
        const V t1239 = t1237 + t1235;
        const V t1240 = t1237 - t1235;
        // real block of 7, multiplier 4
        const V t1241 = t1238 + t1236;
        const V t1242 = t1238 - t1236;
        // real block of 7, multiplier 4
        const V t1243 = t1219 + t1221;
        const V t1244 = c[0] * t1243;
        const V t1245 = c[1] * t1243;
        const V t1246 = c[2] * t1243;
        const V t1247 = t1231 + t1239;
        const V t1248 = c[1] * t1231;
        const V t1249 = t1225 - t1248;
        const V t1250 = c[2] * t1239;
        const V t1251 = c[3] * t1232;
        const V t1252 = c[4] * t1240;
        const V t1253 = t1251 + t1252;
        const V t1254 = c[5] * t1223;
        const V t1255 = c[2] * t1231;
        const V t1256 = c[0] * t1239;
        const V t1257 = t1255 - t1256;
        const V t1258 = c[4] * t1232;
        const V t1259 = c[5] * t1240;
        const V t1260 = c[3] * t1223;
        const V t1261 = t1259 + t1260;
        const V t1262 = c[0] * t1231;
        const V t1263 = t1225 - t1262;
        const V t1264 = c[1] * t1239;
        const V t1265 = c[5] * t1232;
        const V t1266 = c[3] * t1240;
        const V t1267 = t1265 + t1266;
        const V t1268 = c[4] * t1223;
        // real block of 7, multiplier 4
        const V t1269 = t1220 + t1222;
        const V t1270 = c[0] * t1269;
        const V t1271 = c[1] * t1269;
        const V t1272 = c[2] * t1269;
        const V t1273 = t1233 + t1241;
        const V t1274 = c[1] * t1233;
        const V t1275 = t1226 - t1274;
        const V t1276 = c[2] * t1241;
        const V t1277 = c[3] * t1234;
        const V t1278 = c[4] * t1242;
        const V t1279 = t1277 + t1278;
        const V t1280 = c[5] * t1224;
        const V t1281 = c[2] * t1233;
        const V t1282 = c[0] * t1241;
        const V t1283 = t1281 - t1282;
        const V t1284 = c[4] * t1234;
        const V t1285 = c[5] * t1242;
        const V t1286 = c[3] * t1224;
        const V t1287 = t1285 + t1286;
        const V t1288 = c[0] * t1233;
        const V t1289 = t1226 - t1288;
        const V t1290 = c[1] * t1241;
        const V t1291 = c[5] * t1234;
        const V t1292 = c[3] * t1242;
        const V t1293 = t1291 + t1292;
        const V t1294 = c[4] * t1224;
        // real block of 2
        const V x5i = io.im(5);
        const V x54i = io.im(54);
        const V t1295 = x5i + x54i;
        const V t1296 = x5i - x54i;
        // real block of 2
        const V x19i = io.im(19);
        const V x40i = io.im(40);
        const V t1297 = x19i + x40i;
        const V t1298 = x19i - x40i;
        // real block of 7, multiplier 4
        const V t1299 = t1297 - t1295;
        // real block of 7, multiplier 4
        const V t1300 = t1298 - t1296;
        // real block of 2
        const V x53i = io.im(53);
        const V x6i = io.im(6);
        const V t1301 = x53i + x6i;
        const V t1302 = x53i - x6i;
        // real block of 2
        const V x9i = io.im(9);
        const V x50i = io.im(50);
        const V t1303 = x9i + x50i;
        const V t1304 = x9i - x50i;
        // real block of 7, multiplier 4
        const V t1305 = t1301 + t1303;
        const V t1306 = t1301 - t1303;
        // real block of 7, multiplier 4
        const V t1307 = t1302 + t1304;
        const V t1308 = t1302 - t1304;
        // real block of 2
        const V x16i = io.im(16);
        const V x43i = io.im(43);
        const V t1309 = x16i + x43i;
        const V t1310 = x16i - x43i;
        // real block of 2
        const V x29i = io.im(29);
        const V x30i = io.im(30);
        const V t1311 = x29i + x30i;
        const V t1312 = x29i - x30i;
        // real block of 7, multiplier 4
        const V t1313 = t1311 + t1309;
        const V t1314 = t1311 - t1309;
        // real block of 7, multiplier 4
        const V t1315 = t1312 + t1310;
        const V t1316 = t1312 - t1310;
        // real block of 2
        const V x27i = io.im(27);
        const V x32i = io.im(32);
        const V t1317 = x27i + x32i;
        const V t1318 = x27i - x32i;
        // real block of 7, multiplier 4
        const V t1319 = t1297 + t1295;
        const V t1320 = c[0] * t1319;
        const V t1321 = c[1] * t1319;
        const V t1322 = c[2] * t1319;
        const V t1323 = t1305 + t1313;
        const V t1324 = c[1] * t1305;
        const V t1325 = t1317 - t1324;
        const V t1326 = c[2] * t1313;
        const V t1327 = c[3] * t1306;
        const V t1328 = c[4] * t1314;
        const V t1329 = t1327 + t1328;
        const V t1330 = c[5] * t1299;
        const V t1331 = c[2] * t1305;
        const V t1332 = c[0] * t1313;
        const V t1333 = t1331 - t1332;
        const V t1334 = c[4] * t1306;
        const V t1335 = c[5] * t1314;
        const V t1336 = c[3] * t1299;
        const V t1337 = t1335 + t1336;
        const V t1338 = c[0] * t1305;
        const V t1339 = t1317 - t1338;
        const V t1340 = c[1] * t1313;
        const V t1341 = c[5] * t1306;
        const V t1342 = c[3] * t1314;
        const V t1343 = t1341 + t1342;
        const V t1344 = c[4] * t1299;
        // real block of 7, multiplier 4
        const V t1345 = t1298 + t1296;
        const V t1346 = c[0] * t1345;
        const V t1347 = c[1] * t1345;
        const V t1348 = c[2] * t1345;
        const V t1349 = t1307 + t1315;
        const V t1350 = c[1] * t1307;
        const V t1351 = t1318 - t1350;
        const V t1352 = c[2] * t1315;
        const V t1353 = c[3] * t1308;
        const V t1354 = c[4] * t1316;
        const V t1355 = t1353 + t1354;
        const V t1356 = c[5] * t1300;
        const V t1357 = c[2] * t1307;
        const V t1358 = c[0] * t1315;
        const V t1359 = t1357 - t1358;
        const V t1360 = c[4] * t1308;
        const V t1361 = c[5] * t1316;
        const V t1362 = c[3] * t1300;
        const V t1363 = t1361 + t1362;
        const V t1364 = c[0] * t1307;
        const V t1365 = t1318 - t1364;
        const V t1366 = c[1] * t1315;
        const V t1367 = c[5] * t1308;
        const V t1368 = c[3] * t1316;
        const V t1369 = t1367 + t1368;
        const V t1370 = c[4] * t1300;
        // real block of 2
        const V x7i = io.im(7);
        const V x52i = io.im(52);
        const V t1371 = x7i + x52i;
        const V t1372 = x7i - x52i;
        // real block of 2
        const V x22i = io.im(22);
        const V x37i = io.im(37);
        const V t1373 = x22i + x37i;
        const V t1374 = x22i - x37i;
        // real block of 7, multiplier 4
        const V t1375 = t1373 + t1371;
        const V t1376 = t1373 - t1371;
        // real block of 7, multiplier 4
        const V t1377 = t1374 + t1372;
        const V t1378 = t1374 - t1372;
        // real block of 2
        const V x15i = io.im(15);
        const V x44i = io.im(44);
        const V t1379 = x15i + x44i;
        const V t1380 = x15i - x44i;
        // real block of 2
        const V x20i = io.im(20);
        const V x39i = io.im(39);
        const V t1381 = x20i + x39i;
        const V t1382 = x20i - x39i;
        // real block of 2
        const V x36i = io.im(36);
        const V x23i = io.im(23);
        const V t1383 = x36i + x23i;
        const V t1384 = x36i - x23i;
        // real block of 7, multiplier 4
        const V t1385 = t1381 - t1383;
        // real block of 7, multiplier 4
        const V t1386 = t1382 - t1384;
        // real block of 2
        const V x21i = io.im(21);
        const V x38i = io.im(38);
        const V t1387 = x21i + x38i;
        const V t1388 = x21i - x38i;
        // real block of 2
        const V x25i = io.im(25);
        const V x34i = io.im(34);
        const V t1389 = x25i + x34i;
        const V t1390 = x25i - x34i;
        // real block of 7, multiplier 4
        const V t1391 = t1389 + t1387;
        const V t1392 = t1389 - t1387;
        // real block of 7, multiplier 4
        const V t1393 = t1390 + t1388;
        const V t1394 = t1390 - t1388;
        // real block of 7, multiplier 4
        const V t1395 = t1381 + t1383;
        const V t1396 = c[0] * t1395;
        const V t1397 = c[1] * t1395;
        const V t1398 = c[2] * t1395;
        const V t1399 = t1375 + t1391;
        const V t1400 = c[1] * t1375;
        const V t1401 = t1379 - t1400;
        const V t1402 = c[2] * t1391;
        const V t1403 = c[3] * t1376;
        const V t1404 = c[4] * t1392;
        const V t1405 = t1403 + t1404;
        const V t1406 = c[5] * t1385;
        const V t1407 = c[2] * t1375;
        const V t1408 = c[0] * t1391;
        const V t1409 = t1407 - t1408;
        const V t1410 = c[4] * t1376;
        const V t1411 = c[5] * t1392;
        const V t1412 = c[3] * t1385;
        const V t1413 = t1411 + t1412;
        const V t1414 = c[0] * t1375;
        const V t1415 = t1379 - t1414;
        const V t1416 = c[1] * t1391;
        const V t1417 = c[5] * t1376;
        const V t1418 = c[3] * t1392;
        const V t1419 = t1417 + t1418;
        const V t1420 = c[4] * t1385;
        // real block of 7, multiplier 4
        const V t1421 = t1382 + t1384;
        const V t1422 = c[0] * t1421;
        const V t1423 = c[1] * t1421;
        const V t1424 = c[2] * t1421;
        const V t1425 = t1377 + t1393;
        const V t1426 = c[1] * t1377;
        const V t1427 = t1380 - t1426;
        const V t1428 = c[2] * t1393;
        const V t1429 = c[3] * t1378;
        const V t1430 = c[4] * t1394;
        const V t1431 = t1429 + t1430;
        const V t1432 = c[5] * t1386;
        const V t1433 = c[2] * t1377;
        const V t1434 = c[0] * t1393;
        const V t1435 = t1433 - t1434;
        const V t1436 = c[4] * t1378;
        const V t1437 = c[5] * t1394;
        const V t1438 = c[3] * t1386;
        const V t1439 = t1437 + t1438;
        const V t1440 = c[0] * t1377;
        const V t1441 = t1380 - t1440;
        const V t1442 = c[1] * t1393;
        const V t1443 = c[5] * t1378;
        const V t1444 = c[3] * t1394;
        const V t1445 = t1443 + t1444;
        const V t1446 = c[4] * t1386;
        // real block of 7, multiplier 4
        const V t1447 = t1247 + t1243;
        const V t1448 = t1447 + t1225;
        // real block of 7, multiplier 4
        const V t1449 = t1171 + t1167;
        const V t1450 = t1449 + t1165;
        // real block of 7, multiplier 4
        const V t1451 = t1399 + t1395;
        const V t1452 = t1451 + t1379;
        // real block of 7, multiplier 4
        const V t1453 = t1323 + t1319;
        const V t1454 = t1453 + t1317;
        // real block of 2
        const V t1455 = t1448 + t1452;
        // real block of 2
        const V t1456 = t1450 + t1454;
        // real block of 2
        const V t1457 = t1455 + t1456;
        const V t1458 = t1455 - t1456;
        // real block of 2
        const V t1459 = t1448 - t1452;
        // real block of 2
        const V t1460 = t1450 - t1454;
        // real block of 7, multiplier 4
        const V t1461 = t1249 + t1250;
        const V t1462 = t1461 - t1244;
        // real block of 7, multiplier 4
        const V t1463 = t1401 + t1402;
        const V t1464 = t1463 - t1396;
        // complex block of 2
        const V t1465 = t1462 + t1464;
        const V t1466 = t1462 - t1464;
        // real block of 7, multiplier 4
        const V t1467 = t1253 - t1254;
        // real block of 7, multiplier 4
        const V t1468 = t1405 - t1406;
        // complex block of 2
        const V t1469 = t1467 + t1468;
        const V t1470 = t1467 - t1468;
        // real block of 7, multiplier 4
        const V t1471 = t1173 + t1174;
        const V t1472 = t1471 - t1168;
        // real block of 7, multiplier 4
        const V t1473 = t1325 + t1326;
        const V t1474 = t1473 - t1320;
        // complex block of 2
        const V t1475 = t1472 + t1474;
        const V t1476 = t1472 - t1474;
        // real block of 7, multiplier 4
        const V t1477 = t1177 - t1178;
        // real block of 7, multiplier 4
        const V t1478 = t1329 - t1330;
        // complex block of 2
        const V t1479 = t1477 + t1478;
        const V t1480 = t1477 - t1478;
        // complex block of 2
        const V t1481 = t1465 + t1475;
        // real block of 29, multiplier 2
        const V t1482 = c[6] * t1481;
        // complex block of 2
        const V t1483 = t1469 + t1479;
        // real block of 29, multiplier 2
        const V t1484 = c[7] * t1483;
        const V t1485 = c[6] * t1483;
        // complex block of 2
        const V t1486 = t1465 - t1475;
        // real block of 29, multiplier 2
        const V t1487 = c[8] * t1486;
        // complex block of 2
        const V t1488 = t1469 - t1479;
        // real block of 29, multiplier 2
        const V t1489 = c[9] * t1488;
        const V t1490 = c[8] * t1488;
        // complex block of 2
        const V t1491 = t1466 - t1480;
        // real block of 29, multiplier 2
        const V t1492 = c[10] * t1491;
        const V t1493 = c[11] * t1491;
        // complex block of 2
        const V t1494 = t1470 + t1476;
        // real block of 29, multiplier 2
        const V t1495 = c[11] * t1494;
        const V t1496 = c[10] * t1494;
        // complex block of 2
        const V t1497 = t1466 + t1480;
        // real block of 29, multiplier 2
        const V t1498 = c[12] * t1497;
        const V t1499 = c[13] * t1497;
        // complex block of 2
        const V t1500 = t1470 - t1476;
        // real block of 29, multiplier 2
        const V t1501 = c[13] * t1500;
        const V t1502 = c[12] * t1500;
        // real block of 7, multiplier 4
        const V t1503 = t1257 - t1245;
        const V t1504 = t1503 + t1225;
        // real block of 7, multiplier 4
        const V t1505 = t1409 - t1397;
        const V t1506 = t1505 + t1379;
        // complex block of 2
        const V t1507 = t1504 + t1506;
        // real block of 7, multiplier 4
        const V t1508 = t1261 - t1258;
        // real block of 7, multiplier 4
        const V t1509 = t1413 - t1410;
        // complex block of 2
        const V t1510 = t1508 + t1509;
        const V t1511 = t1508 - t1509;
        // real block of 7, multiplier 4
        const V t1512 = t1181 - t1169;
        const V t1513 = t1512 + t1165;
        // real block of 7, multiplier 4
        const V t1514 = t1333 - t1321;
        const V t1515 = t1514 + t1317;
        // complex block of 2
        const V t1516 = t1513 + t1515;
        // real block of 7, multiplier 4
        const V t1517 = t1185 - t1182;
        // real block of 7, multiplier 4
        const V t1518 = t1337 - t1334;
        // complex block of 2
        const V t1519 = t1517 + t1518;
        const V t1520 = t1517 - t1518;
        // complex block of 2
        const V t1521 = t1504 - t1506;
        // complex block of 2
        const V t1522 = t1521 - t1520;
        const V t1523 = t1521 + t1520;
        // complex block of 2
        const V t1524 = t1513 - t1515;
        // complex block of 2
        const V t1525 = t1511 + t1524;
        const V t1526 = t1511 - t1524;
        // complex block of 2
        const V t1527 = t1507 + t1516;
        // real block of 29, multiplier 2
        const V t1528 = c[14] * t1527;
        // complex block of 2
        const V t1529 = t1510 + t1519;
        // real block of 29, multiplier 2
        const V t1530 = c[15] * t1529;
        const V t1531 = c[14] * t1529;
        // complex block of 2
        const V t1532 = t1507 - t1516;
        // real block of 29, multiplier 2
        const V t1533 = c[16] * t1532;
        // complex block of 2
        const V t1534 = t1510 - t1519;
        // real block of 29, multiplier 2
        const V t1535 = c[17] * t1534;
        const V t1536 = c[16] * t1534;
        // real block of 7, multiplier 4
        const V t1537 = t1263 - t1264;
        const V t1538 = t1537 + t1246;
        // real block of 7, multiplier 4
        const V t1539 = t1415 - t1416;
        const V t1540 = t1539 + t1398;
        // complex block of 2
        const V t1541 = t1538 - t1540;
        // real block of 7, multiplier 4
        const V t1542 = t1267 + t1268;
        // real block of 7, multiplier 4
        const V t1543 = t1419 + t1420;
        // complex block of 2
        const V t1544 = t1542 + t1543;
        const V t1545 = t1542 - t1543;
        // real block of 7, multiplier 4
        const V t1546 = t1187 - t1188;
        const V t1547 = t1546 + t1170;
        // real block of 7, multiplier 4
        const V t1548 = t1339 - t1340;
        const V t1549 = t1548 + t1322;
        // complex block of 2
        const V t1550 = t1547 - t1549;
        // real block of 7, multiplier 4
        const V t1551 = t1191 + t1192;
        // real block of 7, multiplier 4
        const V t1552 = t1343 + t1344;
        // complex block of 2
        const V t1553 = t1551 + t1552;
        const V t1554 = t1551 - t1552;
        // complex block of 2
        const V t1555 = t1538 + t1540;
        // complex block of 2
        const V t1556 = t1547 + t1549;
        // complex block of 2
        const V t1557 = t1555 + t1556;
        const V t1558 = t1555 - t1556;
        const V t1559 = t1544 + t1553;
        // real block of 29, multiplier 2
        const V t1560 = c[18] * t1559;
        // complex block of 2
        const V t1561 = t1544 - t1553;
        // real block of 29, multiplier 2
        const V t1562 = c[19] * t1561;
        // complex block of 2
        const V t1563 = t1541 - t1554;
        // real block of 29, multiplier 2
        const V t1564 = c[20] * t1563;
        const V t1565 = c[21] * t1563;
        // complex block of 2
        const V t1566 = t1545 + t1550;
        // real block of 29, multiplier 2
        const V t1567 = c[21] * t1566;
        const V t1568 = c[20] * t1566;
        // complex block of 2
        const V t1569 = t1541 + t1554;
        // real block of 29, multiplier 2
        const V t1570 = c[22] * t1569;
        const V t1571 = c[23] * t1569;
        // complex block of 2
        const V t1572 = t1545 - t1550;
        // real block of 29, multiplier 2
        const V t1573 = c[23] * t1572;
        const V t1574 = c[22] * t1572;
        // real block of 7, multiplier 4
        const V t1575 = t1273 + t1269;
        const V t1576 = t1575 + t1226;
        // real block of 7, multiplier 4
        const V t1577 = t1197 + t1193;
        const V t1578 = t1577 + t1166;
        // real block of 7, multiplier 4
        const V t1579 = t1425 + t1421;
        const V t1580 = t1579 + t1380;
        // real block of 7, multiplier 4
        const V t1581 = t1349 + t1345;
        const V t1582 = t1581 + t1318;
        // real block of 2
        const V t1583 = t1576 + t1580;
        // real block of 2
        const V t1584 = t1578 + t1582;
        // real block of 2
        const V t1585 = t1583 + t1584;
        const V t1586 = t1583 - t1584;
        // real block of 2
        const V t1587 = t1576 - t1580;
        // real block of 2
        const V t1588 = t1578 - t1582;
        // real block of 7, multiplier 4
        const V t1589 = t1275 + t1276;
        const V t1590 = t1589 - t1270;
        // real block of 7, multiplier 4
        const V t1591 = t1427 + t1428;
        const V t1592 = t1591 - t1422;
        // complex block of 2
        const V t1593 = t1590 + t1592;
        const V t1594 = t1590 - t1592;
        // real block of 7, multiplier 4
        const V t1595 = t1279 - t1280;
        // real block of 7, multiplier 4
        const V t1596 = t1431 - t1432;
        // complex block of 2
        const V t1597 = t1595 + t1596;
        const V t1598 = t1595 - t1596;
        // real block of 7, multiplier 4
        const V t1599 = t1199 + t1200;
        const V t1600 = t1599 - t1194;
        // real block of 7, multiplier 4
        const V t1601 = t1351 + t1352;
        const V t1602 = t1601 - t1346;
        // complex block of 2
        const V t1603 = t1600 + t1602;
        const V t1604 = t1600 - t1602;
        // real block of 7, multiplier 4
        const V t1605 = t1203 - t1204;
        // real block of 7, multiplier 4
        const V t1606 = t1355 - t1356;
        // complex block of 2
        const V t1607 = t1605 + t1606;
        const V t1608 = t1605 - t1606;
        // complex block of 2
        const V t1609 = t1593 + t1603;
        // real block of 29, multiplier 2
        const V t1610 = c[6] * t1609;
        // complex block of 2
        const V t1611 = t1597 + t1607;
        // real block of 29, multiplier 2
        const V t1612 = c[7] * t1611;
        const V t1613 = c[6] * t1611;
        // complex block of 2
        const V t1614 = t1593 - t1603;
        // real block of 29, multiplier 2
        const V t1615 = c[8] * t1614;
        // complex block of 2
        const V t1616 = t1597 - t1607;
        // real block of 29, multiplier 2
        const V t1617 = c[9] * t1616;
        const V t1618 = c[8] * t1616;
        // complex block of 2
        const V t1619 = t1594 - t1608;
        // real block of 29, multiplier 2
        const V t1620 = c[10] * t1619;
        const V t1621 = c[11] * t1619;
        // complex block of 2
        const V t1622 = t1598 + t1604;
        // real block of 29, multiplier 2
        const V t1623 = c[11] * t1622;
        const V t1624 = c[10] * t1622;
        // complex block of 2
        const V t1625 = t1594 + t1608;
        // real block of 29, multiplier 2
        const V t1626 = c[12] * t1625;
        const V t1627 = c[13] * t1625;
        // complex block of 2
        const V t1628 = t1598 - t1604;
        // real block of 29, multiplier 2
        const V t1629 = c[13] * t1628;
        const V t1630 = c[12] * t1628;
        // real block of 7, multiplier 4
        const V t1631 = t1283 - t1271;
        const V t1632 = t1631 + t1226;
        // real block of 7, multiplier 4
        const V t1633 = t1435 - t1423;
        const V t1634 = t1633 + t1380;
        // complex block of 2
        const V t1635 = t1632 + t1634;
        // real block of 7, multiplier 4
        const V t1636 = t1287 - t1284;
        // real block of 7, multiplier 4
        const V t1637 = t1439 - t1436;
        // complex block of 2
        const V t1638 = t1636 + t1637;
        const V t1639 = t1636 - t1637;
        // real block of 7, multiplier 4
        const V t1640 = t1207 - t1195;
        const V t1641 = t1640 + t1166;
        // real block of 7, multiplier 4
        const V t1642 = t1359 - t1347;
        const V t1643 = t1642 + t1318;
        // complex block of 2
        const V t1644 = t1641 + t1643;
        // real block of 7, multiplier 4
        const V t1645 = t1211 - t1208;
        // real block of 7, multiplier 4
        const V t1646 = t1363 - t1360;
        // complex block of 2
        const V t1647 = t1645 + t1646;
        const V t1648 = t1645 - t1646;
        // complex block of 2
        const V t1649 = t1632 - t1634;
        // complex block of 2
        const V t1650 = t1649 - t1648;
        const V t1651 = t1649 + t1648;
        // complex block of 2
        const V t1652 = t1641 - t1643;
        // complex block of 2
        const V t1653 = t1639 + t1652;
        const V t1654 = t1639 - t1652;
        // complex block of 2
        const V t1655 = t1635 + t1644;
        // real block of 29, multiplier 2
        const V t1656 = c[14] * t1655;
        // complex block of 2
        const V t1657 = t1638 + t1647;
        // real block of 29, multiplier 2
        const V t1658 = c[15] * t1657;
        const V t1659 = c[14] * t1657;
        // complex block of 2
        const V t1660 = t1635 - t1644;
        // real block of 29, multiplier 2
        const V t1661 = c[16] * t1660;
        // complex block of 2
        const V t1662 = t1638 - t1647;
        // real block of 29, multiplier 2
        const V t1663 = c[17] * t1662;
        const V t1664 = c[16] * t1662;
        // real block of 7, multiplier 4
        const V t1665 = t1289 - t1290;
        const V t1666 = t1665 + t1272;
        // real block of 7, multiplier 4
        const V t1667 = t1441 - t1442;
        const V t1668 = t1667 + t1424;
        // complex block of 2
        const V t1669 = t1666 - t1668;
        // real block of 7, multiplier 4
        const V t1670 = t1293 + t1294;
        // real block of 7, multiplier 4
        const V t1671 = t1445 + t1446;
        // complex block of 2
        const V t1672 = t1670 + t1671;
        const V t1673 = t1670 - t1671;
        // real block of 7, multiplier 4
        const V t1674 = t1213 - t1214;
        const V t1675 = t1674 + t1196;
        // real block of 7, multiplier 4
        const V t1676 = t1365 - t1366;
        const V t1677 = t1676 + t1348;
        // complex block of 2
        const V t1678 = t1675 - t1677;
        // real block of 7, multiplier 4
        const V t1679 = t1217 + t1218;
        // real block of 7, multiplier 4
        const V t1680 = t1369 + t1370;
        // complex block of 2
        const V t1681 = t1679 + t1680;
        const V t1682 = t1679 - t1680;
        // complex block of 2
        const V t1683 = t1666 + t1668;
        // complex block of 2
        const V t1684 = t1675 + t1677;
        // complex block of 2
        const V t1685 = t1683 + t1684;
        const V t1686 = t1683 - t1684;
        const V t1687 = t1672 + t1681;
        // real block of 29, multiplier 2
        const V t1688 = c[18] * t1687;
        // complex block of 2
        const V t1689 = t1672 - t1681;
        // real block of 29, multiplier 2
        const V t1690 = c[19] * t1689;
        // complex block of 2
        const V t1691 = t1669 - t1682;
        // real block of 29, multiplier 2
        const V t1692 = c[20] * t1691;
        const V t1693 = c[21] * t1691;
        // complex block of 2
        const V t1694 = t1673 + t1678;
        // real block of 29, multiplier 2
        const V t1695 = c[21] * t1694;
        const V t1696 = c[20] * t1694;
        // complex block of 2
        const V t1697 = t1669 + t1682;
        // real block of 29, multiplier 2
        const V t1698 = c[22] * t1697;
        const V t1699 = c[23] * t1697;
        // complex block of 2
        const V t1700 = t1673 - t1678;
        // real block of 29, multiplier 2
        const V t1701 = c[23] * t1700;
        const V t1702 = c[22] * t1700;
        // real block of 29, multiplier 2
        const V t1703 = t1141 + t1457;
        // complex block of 59
        const V t1704 = c[90] * t1703;
        // real block of 29, multiplier 2
        const V t1705 = c[32] * t1457;
        const V t1706 = t1141 - t1705;
        const V t1707 = c[24] * t1558;
        const V t1708 = t1707 + t1562;
        const V t1709 = c[25] * t1557;
        const V t1710 = t1709 + t1560;
        // complex block of 2
        const V t1711 = t1710 - t1708;
        // real block of 29, multiplier 2
        const V t1712 = t1482 + t1484;
        const V t1713 = t1487 + t1489;
        // complex block of 2
        const V t1714 = t1712 + t1713;
        const V t1715 = t1712 - t1713;
        // spectrum block of 7, multiplier 2
        const V t1716 = c[2] * t1714;
        // real block of 29, multiplier 2
        const V t1717 = t1533 - t1535;
        const V t1718 = t1528 - t1530;
        // complex block of 2
        const V t1719 = t1718 - t1717;
        const V t1720 = t1718 + t1717;
        // spectrum block of 7, multiplier 2
        const V t1721 = c[0] * t1719;
        // real block of 29, multiplier 2
        const V t1722 = c[33] * t1458;
        // spectrum block of 2
        const V t1723 = t1706 - t1722;
        // spectrum block of 7, multiplier 2
        const V t1724 = c[0] * t1715;
        const V t1725 = c[1] * t1715;
        const V t1726 = t1723 - t1724;
        const V t1727 = t1723 - t1725;
        // spectrum block of 2
        const V t1728 = t1706 + t1722;
        // spectrum block of 7, multiplier 2
        const V t1729 = c[0] * t1714;
        const V t1730 = c[1] * t1714;
        const V t1731 = t1728 - t1729;
        const V t1732 = t1728 - t1730;
        // complex block of 2
        const V t1733 = t1710 + t1708;
        // spectrum block of 7, multiplier 2
        const V t1734 = c[1] * t1733;
        const V t1735 = c[2] * t1733;
        const V t1736 = t1715 + t1720;
        const V t1737 = c[2] * t1715;
        const V t1738 = c[0] * t1720;
        const V t1739 = t1737 - t1738;
        const V t1740 = c[1] * t1720;
        const V t1741 = c[2] * t1720;
        // spectrum block of 7, multiplier 2
        const V t1742 = t1714 + t1719;
        const V t1743 = t1716 - t1721;
        const V t1744 = c[1] * t1711;
        const V t1745 = t1743 - t1744;
        const V t1746 = c[1] * t1719;
        const V t1747 = c[2] * t1711;
        const V t1748 = c[2] * t1719;
        const V t1749 = c[0] * t1711;
        // real block of 29, multiplier 2
        const V t1750 = c[26] * t1526;
        const V t1751 = c[27] * t1523;
        const V t1752 = t1751 + t1750;
        const V t1753 = c[28] * t1525;
        const V t1754 = c[29] * t1522;
        const V t1755 = t1754 - t1753;
        // complex block of 2
        const V t1756 = t1752 + t1755;
        // real block of 29, multiplier 2
        const V t1757 = c[26] * t1523;
        const V t1758 = c[27] * t1526;
        const V t1759 = t1758 - t1757;
        const V t1760 = c[28] * t1522;
        const V t1761 = c[29] * t1525;
        const V t1762 = t1761 + t1760;
        // complex block of 2
        const V t1763 = t1759 + t1762;
        const V t1764 = t1755 - t1752;
        // spectrum block of 7, multiplier 2
        const V t1765 = c[3] * t1764;
        // complex block of 2
        const V t1766 = t1759 - t1762;
        // spectrum block of 7, multiplier 2
        const V t1767 = c[1] * t1766;
        // mirrored skew block of 14
        const V t1768 = c[0] * t1756;
        const V t1769 = c[5] * t1763;
        const V t1770 = t1769 + t1768;
        const V t1771 = c[0] * t1763;
        const V t1772 = c[5] * t1756;
        const V t1773 = t1771 - t1772;
        // real block of 29, multiplier 2
        const V t1774 = c[19] * t1558;
        const V t1775 = c[24] * t1561;
        const V t1776 = t1774 - t1775;
        const V t1777 = c[18] * t1557;
        const V t1778 = c[25] * t1559;
        const V t1779 = t1778 - t1777;
        // complex block of 2
        const V t1780 = t1779 - t1776;
        // spectrum block of 7, multiplier 2
        const V t1781 = c[4] * t1780;
        // complex block of 2
        const V t1782 = t1779 + t1776;
        // spectrum block of 7, multiplier 2
        const V t1783 = c[3] * t1782;
        const V t1784 = c[4] * t1782;
        const V t1785 = c[5] * t1782;
        // real block of 29, multiplier 2
        const V t1786 = t1498 + t1501;
        const V t1787 = t1492 - t1495;
        // complex block of 2
        const V t1788 = t1786 + t1787;
        const V t1789 = t1787 - t1786;
        // mirrored skew block of 14
        const V t1790 = c[2] * t1788;
        const V t1791 = c[4] * t1788;
        // real block of 29, multiplier 2
        const V t1792 = t1499 - t1502;
        const V t1793 = t1496 + t1493;
        // complex block of 2
        const V t1794 = t1792 - t1793;
        const V t1795 = t1792 + t1793;
        // mirrored skew block of 14
        const V t1796 = c[4] * t1794;
        const V t1797 = c[2] * t1794;
        // real block of 29, multiplier 2
        const V t1798 = t1573 - t1570;
        const V t1799 = t1567 - t1564;
        // complex block of 2
        const V t1800 = t1798 + t1799;
        const V t1801 = t1799 - t1798;
        // mirrored skew block of 14
        const V t1802 = c[1] * t1800;
        const V t1803 = c[3] * t1800;
        // real block of 29, multiplier 2
        const V t1804 = t1574 + t1571;
        const V t1805 = t1568 + t1565;
        // complex block of 2
        const V t1806 = t1804 + t1805;
        const V t1807 = t1805 - t1804;
        // mirrored skew block of 14
        const V t1808 = c[3] * t1806;
        const V t1809 = c[1] * t1806;
        // real block of 29, multiplier 2
        const V t1810 = c[30] * t1459;
        const V t1811 = c[31] * t1460;
        const V t1812 = t1811 + t1810;
        // mirrored skew block of 14
        const V t1813 = t1796 + t1790;
        const V t1814 = t1802 - t1808;
        // spectrum block of 7, multiplier 2
        const V t1815 = t1814 + t1813;
        const V t1816 = c[2] * t1814;
        const V t1817 = c[0] * t1813;
        const V t1818 = c[0] * t1814;
        const V t1819 = c[1] * t1813;
        const V t1820 = c[1] * t1814;
        // mirrored skew block of 14
        const V t1821 = t1797 - t1791;
        // spectrum block of 7, multiplier 2
        const V t1822 = c[3] * t1821;
        // mirrored skew block of 14
        const V t1823 = t1803 + t1809;
        // spectrum block of 7, multiplier 2
        const V t1824 = c[5] * t1823;
        // spectrum block of 7, multiplier 2
        const V t1825 = t1807 + t1795;
        const V t1826 = c[2] * t1807;
        const V t1827 = c[0] * t1795;
        const V t1828 = t1826 - t1827;
        const V t1829 = c[4] * t1801;
        const V t1830 = c[5] * t1789;
        const V t1831 = t1829 + t1830;
        const V t1832 = c[0] * t1807;
        const V t1833 = t1812 - t1832;
        const V t1834 = c[1] * t1795;
        const V t1835 = c[5] * t1801;
        const V t1836 = c[3] * t1789;
        const V t1837 = c[1] * t1807;
        const V t1838 = t1812 - t1837;
        const V t1839 = c[2] * t1795;
        const V t1840 = c[3] * t1801;
        const V t1841 = c[4] * t1789;
        // real block of 29, multiplier 2
        const V t1842 = c[7] * t1481;
        const V t1843 = t1485 - t1842;
        const V t1844 = c[9] * t1486;
        const V t1845 = t1490 - t1844;
        // complex block of 2
        const V t1846 = t1843 + t1845;
        // real block of 29, multiplier 2
        const V t1847 = c[17] * t1532;
        const V t1848 = t1536 + t1847;
        const V t1849 = c[15] * t1527;
        const V t1850 = t1531 + t1849;
        // complex block of 2
        const V t1851 = t1850 - t1848;
        // complex block of 2
        const V t1852 = t1843 - t1845;
        // spectrum block of 7, multiplier 2
        const V t1853 = c[4] * t1852;
        const V t1854 = c[5] * t1852;
        const V t1855 = c[3] * t1852;
        // complex block of 2
        const V t1856 = t1850 + t1848;
        // spectrum block of 7, multiplier 2
        const V t1857 = c[5] * t1856;
        const V t1858 = c[3] * t1856;
        const V t1859 = c[4] * t1856;
        // spectrum block of 7, multiplier 2
        const V t1860 = c[4] * t1846;
        const V t1861 = c[5] * t1851;
        const V t1862 = t1860 + t1861;
        const V t1863 = c[5] * t1846;
        const V t1864 = c[3] * t1851;
        const V t1865 = c[3] * t1846;
        const V t1866 = c[4] * t1851;
        // real block of 29, multiplier 2
        const V t1867 = c[30] * t1460;
        const V t1868 = c[31] * t1459;
        const V t1869 = t1868 - t1867;
        // spectrum block of 7, multiplier 2
        const V t1870 = t1736 + t1733;
        const V t1871 = t1870 + t1723;
        // complex block of 59
        const V t1872 = c[34] * t1871;
        const V t1873 = c[35] * t1871;
        // spectrum block of 7, multiplier 2
        const V t1874 = t1739 - t1734;
        const V t1875 = t1874 + t1723;
        const V t1876 = t1853 + t1857;
        const V t1877 = c[3] * t1780;
        const V t1878 = t1876 + t1877;
        const V t1879 = t1875 - t1878;
        const V t1880 = t1875 + t1878;
        const V t1881 = t1726 - t1740;
        const V t1882 = t1881 + t1735;
        const V t1883 = t1854 - t1858;
        const V t1884 = t1883 - t1781;
        const V t1885 = t1882 - t1884;
        // complex block of 59
        const V t1886 = c[36] * t1885;
        const V t1887 = c[37] * t1885;
        // spectrum block of 7, multiplier 2
        const V t1888 = t1882 + t1884;
        // complex block of 59
        const V t1889 = c[38] * t1888;
        const V t1890 = c[39] * t1888;
        // spectrum block of 7, multiplier 2
        const V t1891 = t1727 + t1741;
        const V t1892 = c[0] * t1733;
        const V t1893 = t1891 - t1892;
        const V t1894 = t1855 - t1859;
        const V t1895 = c[5] * t1780;
        const V t1896 = t1894 + t1895;
        const V t1897 = t1893 - t1896;
        const V t1898 = t1893 + t1896;
        // spectrum block of 7, multiplier 2
        const V t1899 = t1742 + t1711;
        const V t1900 = t1899 + t1728;
        // complex block of 59
        const V t1901 = c[40] * t1900;
        const V t1902 = c[41] * t1900;
        // spectrum block of 7, multiplier 2
        const V t1903 = t1745 + t1728;
        const V t1904 = t1862 + t1783;
        const V t1905 = t1903 - t1904;
        const V t1906 = t1903 + t1904;
        // spectrum block of 7, multiplier 2
        const V t1907 = t1815 + t1770;
        const V t1908 = t1907 + t1869;
        // complex block of 59
        const V t1909 = c[42] * t1906;
        const V t1910 = c[43] * t1905;
        const V t1911 = c[44] * t1908;
        const V t1912 = t1910 - t1911;
        // spectrum block of 7, multiplier 2
        const V t1913 = t1731 - t1746;
        const V t1914 = t1913 + t1747;
        const V t1915 = t1863 - t1864;
        const V t1916 = t1915 - t1784;
        const V t1917 = t1914 - t1916;
        // complex block of 59
        const V t1918 = c[45] * t1917;
        const V t1919 = c[46] * t1917;
        // spectrum block of 7, multiplier 2
        const V t1920 = t1914 + t1916;
        // complex block of 59
        const V t1921 = c[47] * t1920;
        const V t1922 = c[48] * t1920;
        // spectrum block of 7, multiplier 2
        const V t1923 = t1732 + t1748;
        const V t1924 = t1923 - t1749;
        const V t1925 = t1865 - t1866;
        const V t1926 = t1925 + t1785;
        const V t1927 = t1924 - t1926;
        // complex block of 59
        const V t1928 = c[49] * t1927;
        // spectrum block of 7, multiplier 2
        const V t1929 = t1924 + t1926;
        // complex block of 59
        const V t1930 = c[50] * t1929;
        // spectrum block of 7, multiplier 2
        const V t1931 = t1825 + t1766;
        const V t1932 = t1931 + t1812;
        // complex block of 59
        const V t1933 = c[35] * t1932;
        const V t1934 = c[34] * t1932;
        // spectrum block of 7, multiplier 2
        const V t1935 = t1828 - t1767;
        const V t1936 = t1935 + t1812;
        const V t1937 = t1831 + t1765;
        const V t1938 = t1936 + t1937;
        // complex block of 59
        const V t1939 = c[37] * t1938;
        const V t1940 = c[36] * t1938;
        // spectrum block of 7, multiplier 2
        const V t1941 = t1936 - t1937;
        // complex block of 59
        const V t1942 = c[39] * t1941;
        const V t1943 = c[38] * t1941;
        // spectrum block of 7, multiplier 2
        const V t1944 = t1833 - t1834;
        const V t1945 = c[2] * t1766;
        const V t1946 = t1944 + t1945;
        const V t1947 = t1836 - t1835;
        const V t1948 = c[4] * t1764;
        const V t1949 = t1947 + t1948;
        const V t1950 = t1946 - t1949;
        const V t1951 = t1946 + t1949;
        const V t1952 = t1838 + t1839;
        const V t1953 = c[0] * t1766;
        const V t1954 = t1952 - t1953;
        const V t1955 = t1841 - t1840;
        const V t1956 = c[5] * t1764;
        const V t1957 = t1955 - t1956;
        const V t1958 = t1954 - t1957;
        const V t1959 = t1954 + t1957;
        // spectrum block of 7, multiplier 2
        const V t1960 = t1816 - t1817;
        const V t1961 = c[1] * t1770;
        const V t1962 = t1960 - t1961;
        const V t1963 = c[4] * t1823;
        const V t1964 = c[5] * t1821;
        const V t1965 = t1963 - t1964;
        const V t1966 = c[3] * t1773;
        const V t1967 = t1962 + t1869;
        const V t1968 = t1965 - t1966;
        const V t1969 = t1967 - t1968;
        const V t1970 = t1967 + t1968;
        const V t1971 = t1869 - t1818;
        const V t1972 = t1971 - t1819;
        const V t1973 = c[2] * t1770;
        const V t1974 = t1972 + t1973;
        const V t1975 = t1824 + t1822;
        const V t1976 = c[4] * t1773;
        const V t1977 = t1975 + t1976;
        const V t1978 = t1974 - t1977;
        const V t1979 = t1974 + t1977;
        // complex block of 59
        const V t1980 = c[51] * t1979;
        // spectrum block of 7, multiplier 2
        const V t1981 = t1869 - t1820;
        const V t1982 = c[2] * t1813;
        const V t1983 = t1981 + t1982;
        const V t1984 = c[0] * t1770;
        const V t1985 = c[3] * t1823;
        const V t1986 = c[4] * t1821;
        const V t1987 = t1985 + t1986;
        const V t1988 = c[5] * t1773;
        const V t1989 = t1983 - t1984;
        const V t1990 = t1987 - t1988;
        const V t1991 = t1989 - t1990;
        const V t1992 = t1989 + t1990;
        // real block of 29, multiplier 2
        const V t1993 = t1142 + t1585;
        const V t1994 = c[32] * t1585;
        const V t1995 = t1142 - t1994;
        const V t1996 = c[24] * t1686;
        const V t1997 = t1996 + t1690;
        const V t1998 = c[25] * t1685;
        const V t1999 = t1998 + t1688;
        // complex block of 2
        const V t2000 = t1999 - t1997;
        // real block of 29, multiplier 2
        const V t2001 = t1610 + t1612;
        const V t2002 = t1615 + t1617;
        // complex block of 2
        const V t2003 = t2001 + t2002;
        const V t2004 = t2001 - t2002;
        // spectrum block of 7, multiplier 2
        const V t2005 = c[2] * t2003;
        // real block of 29, multiplier 2
        const V t2006 = t1661 - t1663;
        const V t2007 = t1656 - t1658;
        // complex block of 2
        const V t2008 = t2007 - t2006;
        const V t2009 = t2007 + t2006;
        // spectrum block of 7, multiplier 2
        const V t2010 = c[0] * t2008;
        // real block of 29, multiplier 2
        const V t2011 = c[33] * t1586;
        // spectrum block of 2
        const V t2012 = t1995 - t2011;
        // spectrum block of 7, multiplier 2
        const V t2013 = c[0] * t2004;
        const V t2014 = c[1] * t2004;
        const V t2015 = t2012 - t2013;
        const V t2016 = t2012 - t2014;
        // spectrum block of 2
        const V t2017 = t1995 + t2011;
        // spectrum block of 7, multiplier 2
        const V t2018 = c[0] * t2003;
        const V t2019 = c[1] * t2003;
        const V t2020 = t2017 - t2018;
        const V t2021 = t2017 - t2019;
        // complex block of 2
        const V t2022 = t1999 + t1997;
        // spectrum block of 7, multiplier 2
        const V t2023 = c[1] * t2022;
        const V t2024 = c[2] * t2022;
        const V t2025 = t2004 + t2009;
        const V t2026 = c[2] * t2004;
        const V t2027 = c[0] * t2009;
        const V t2028 = t2026 - t2027;
        const V t2029 = c[1] * t2009;
        const V t2030 = c[2] * t2009;
        // spectrum block of 7, multiplier 2
        const V t2031 = t2003 + t2008;
        const V t2032 = t2005 - t2010;
        const V t2033 = c[1] * t2000;
        const V t2034 = t2032 - t2033;
        const V t2035 = c[1] * t2008;
        const V t2036 = c[2] * t2000;
        const V t2037 = c[2] * t2008;
        const V t2038 = c[0] * t2000;
        // real block of 29, multiplier 2
        const V t2039 = c[26] * t1654;
        const V t2040 = c[27] * t1651;
        const V t2041 = t2040 + t2039;
        const V t2042 = c[28] * t1653;
        const V t2043 = c[29] * t1650;
        const V t2044 = t2043 - t2042;
        // complex block of 2
        const V t2045 = t2041 + t2044;
        // real block of 29, multiplier 2
        const V t2046 = c[26] * t1651;
        const V t2047 = c[27] * t1654;
        const V t2048 = t2047 - t2046;
        const V t2049 = c[28] * t1650;
        const V t2050 = c[29] * t1653;
        const V t2051 = t2050 + t2049;
        // complex block of 2
        const V t2052 = t2048 + t2051;
        const V t2053 = t2044 - t2041;
        // spectrum block of 7, multiplier 2
        const V t2054 = c[3] * t2053;
        // complex block of 2
        const V t2055 = t2048 - t2051;
        // spectrum block of 7, multiplier 2
        const V t2056 = c[1] * t2055;
        // mirrored skew block of 14
        const V t2057 = c[0] * t2045;
        const V t2058 = c[5] * t2052;
        const V t2059 = t2058 + t2057;
        const V t2060 = c[0] * t2052;
        const V t2061 = c[5] * t2045;
        const V t2062 = t2060 - t2061;
        // real block of 29, multiplier 2
        const V t2063 = c[19] * t1686;
        const V t2064 = c[24] * t1689;
        const V t2065 = t2063 - t2064;
        const V t2066 = c[18] * t1685;
        const V t2067 = c[25] * t1687;
        const V t2068 = t2067 - t2066;
        // complex block of 2
        const V t2069 = t2068 - t2065;
        // spectrum block of 7, multiplier 2
        const V t2070 = c[4] * t2069;
        // complex block of 2
        const V t2071 = t2068 + t2065;
        // spectrum block of 7, multiplier 2
        const V t2072 = c[3] * t2071;
        const V t2073 = c[4] * t2071;
        const V t2074 = c[5] * t2071;
        // real block of 29, multiplier 2
        const V t2075 = t1626 + t1629;
        const V t2076 = t1620 - t1623;
        // complex block of 2
        const V t2077 = t2075 + t2076;
        const V t2078 = t2076 - t2075;
        // mirrored skew block of 14
        const V t2079 = c[2] * t2077;
        const V t2080 = c[4] * t2077;
        // real block of 29, multiplier 2
        const V t2081 = t1627 - t1630;
        const V t2082 = t1624 + t1621;
        // complex block of 2
        const V t2083 = t2081 - t2082;
        const V t2084 = t2081 + t2082;
        // mirrored skew block of 14
        const V t2085 = c[4] * t2083;
        const V t2086 = c[2] * t2083;
        // real block of 29, multiplier 2
        const V t2087 = t1701 - t1698;
        const V t2088 = t1695 - t1692;
        // complex block of 2
        const V t2089 = t2087 + t2088;
        const V t2090 = t2088 - t2087;
        // mirrored skew block of 14
        const V t2091 = c[1] * t2089;
        const V t2092 = c[3] * t2089;
        // real block of 29, multiplier 2
        const V t2093 = t1702 + t1699;
        const V t2094 = t1696 + t1693;
        // complex block of 2
        const V t2095 = t2093 + t2094;
        const V t2096 = t2094 - t2093;
        // mirrored skew block of 14
        const V t2097 = c[3] * t2095;
        const V t2098 = c[1] * t2095;
        // real block of 29, multiplier 2
        const V t2099 = c[30] * t1587;
        const V t2100 = c[31] * t1588;
        const V t2101 = t2100 + t2099;
        // mirrored skew block of 14
        const V t2102 = t2085 + t2079;
        const V t2103 = t2091 - t2097;
        // spectrum block of 7, multiplier 2
        const V t2104 = t2103 + t2102;
        const V t2105 = c[2] * t2103;
        const V t2106 = c[0] * t2102;
        const V t2107 = c[0] * t2103;
        const V t2108 = c[1] * t2102;
        const V t2109 = c[1] * t2103;
        // mirrored skew block of 14
        const V t2110 = t2086 - t2080;
        // spectrum block of 7, multiplier 2
        const V t2111 = c[3] * t2110;
        // mirrored skew block of 14
        const V t2112 = t2092 + t2098;
        // spectrum block of 7, multiplier 2
        const V t2113 = c[5] * t2112;
        // spectrum block of 7, multiplier 2
        const V t2114 = t2096 + t2084;
        const V t2115 = c[2] * t2096;
        const V t2116 = c[0] * t2084;
        const V t2117 = t2115 - t2116;
        const V t2118 = c[4] * t2090;
        const V t2119 = c[5] * t2078;
        const V t2120 = t2118 + t2119;
        const V t2121 = c[0] * t2096;
        const V t2122 = t2101 - t2121;
        const V t2123 = c[1] * t2084;
        const V t2124 = c[5] * t2090;
        const V t2125 = c[3] * t2078;
        const V t2126 = c[1] * t2096;
        const V t2127 = t2101 - t2126;
        const V t2128 = c[2] * t2084;
        const V t2129 = c[3] * t2090;
        const V t2130 = c[4] * t2078;
        // real block of 29, multiplier 2
        const V t2131 = c[7] * t1609;
        const V t2132 = t1613 - t2131;
        const V t2133 = c[9] * t1614;
        const V t2134 = t1618 - t2133;
        // complex block of 2
        const V t2135 = t2132 + t2134;
        // real block of 29, multiplier 2
        const V t2136 = c[17] * t1660;
        const V t2137 = t1664 + t2136;
        const V t2138 = c[15] * t1655;
        const V t2139 = t1659 + t2138;
        // complex block of 2
        const V t2140 = t2139 - t2137;
        // complex block of 2
        const V t2141 = t2132 - t2134;
        // spectrum block of 7, multiplier 2
        const V t2142 = c[4] * t2141;
        const V t2143 = c[5] * t2141;
        const V t2144 = c[3] * t2141;
        // complex block of 2
        const V t2145 = t2139 + t2137;
        // spectrum block of 7, multiplier 2
        const V t2146 = c[5] * t2145;
        const V t2147 = c[3] * t2145;
        const V t2148 = c[4] * t2145;
        // spectrum block of 7, multiplier 2
        const V t2149 = c[4] * t2135;
        const V t2150 = c[5] * t2140;
        const V t2151 = t2149 + t2150;
        const V t2152 = c[5] * t2135;
        const V t2153 = c[3] * t2140;
        const V t2154 = c[3] * t2135;
        const V t2155 = c[4] * t2140;
        // real block of 29, multiplier 2
        const V t2156 = c[30] * t1588;
        const V t2157 = c[31] * t1587;
        const V t2158 = t2157 - t2156;
        // spectrum block of 7, multiplier 2
        const V t2159 = t2025 + t2022;
        const V t2160 = t2159 + t2012;
        // complex block of 59
        const V t2161 = c[52] * t2160;
        const V t2162 = c[53] * t2160;
        // spectrum block of 7, multiplier 2
        const V t2163 = t2028 - t2023;
        const V t2164 = t2163 + t2012;
        const V t2165 = t2142 + t2146;
        const V t2166 = c[3] * t2069;
        const V t2167 = t2165 + t2166;
        const V t2168 = t2164 - t2167;
        const V t2169 = t2164 + t2167;
        const V t2170 = t2015 - t2029;
        const V t2171 = t2170 + t2024;
        const V t2172 = t2143 - t2147;
        const V t2173 = t2172 - t2070;
        const V t2174 = t2171 - t2173;
        // complex block of 59
        const V t2175 = c[54] * t2174;
        const V t2176 = c[55] * t2174;
        // spectrum block of 7, multiplier 2
        const V t2177 = t2171 + t2173;
        // complex block of 59
        const V t2178 = c[56] * t2177;
        const V t2179 = c[57] * t2177;
        // spectrum block of 7, multiplier 2
        const V t2180 = t2016 + t2030;
        const V t2181 = c[0] * t2022;
        const V t2182 = t2180 - t2181;
        const V t2183 = t2144 - t2148;
        const V t2184 = c[5] * t2069;
        const V t2185 = t2183 + t2184;
        const V t2186 = t2182 - t2185;
        const V t2187 = t2182 + t2185;
        // spectrum block of 7, multiplier 2
        const V t2188 = t2031 + t2000;
        const V t2189 = t2188 + t2017;
        // complex block of 59
        const V t2190 = c[58] * t2189;
        const V t2191 = c[59] * t2189;
        // spectrum block of 7, multiplier 2
        const V t2192 = t2034 + t2017;
        const V t2193 = t2151 + t2072;
        const V t2194 = t2192 - t2193;
        const V t2195 = t2192 + t2193;
        // spectrum block of 7, multiplier 2
        const V t2196 = t2104 + t2059;
        const V t2197 = t2196 + t2158;
        // complex block of 59
        const V t2198 = c[60] * t2194;
        const V t2199 = c[61] * t2197;
        const V t2200 = t2199 - t2198;
        const V t2201 = c[62] * t2195;
        // spectrum block of 7, multiplier 2
        const V t2202 = t2020 - t2035;
        const V t2203 = t2202 + t2036;
        const V t2204 = t2152 - t2153;
        const V t2205 = t2204 - t2073;
        const V t2206 = t2203 - t2205;
        // complex block of 59
        const V t2207 = c[63] * t2206;
        const V t2208 = c[64] * t2206;
        // spectrum block of 7, multiplier 2
        const V t2209 = t2203 + t2205;
        // complex block of 59
        const V t2210 = c[65] * t2209;
        const V t2211 = c[66] * t2209;
        // spectrum block of 7, multiplier 2
        const V t2212 = t2021 + t2037;
        const V t2213 = t2212 - t2038;
        const V t2214 = t2154 - t2155;
        const V t2215 = t2214 + t2074;
        const V t2216 = t2213 - t2215;
        // complex block of 59
        const V t2217 = c[67] * t2216;
        // spectrum block of 7, multiplier 2
        const V t2218 = t2213 + t2215;
        // complex block of 59
        const V t2219 = c[68] * t2218;
        // spectrum block of 7, multiplier 2
        const V t2220 = t2114 + t2055;
        const V t2221 = t2220 + t2101;
        // complex block of 59
        const V t2222 = c[53] * t2221;
        const V t2223 = c[52] * t2221;
        // spectrum block of 7, multiplier 2
        const V t2224 = t2117 - t2056;
        const V t2225 = t2224 + t2101;
        const V t2226 = t2120 + t2054;
        const V t2227 = t2225 + t2226;
        // complex block of 59
        const V t2228 = c[55] * t2227;
        const V t2229 = c[54] * t2227;
        // spectrum block of 7, multiplier 2
        const V t2230 = t2225 - t2226;
        // complex block of 59
        const V t2231 = c[57] * t2230;
        const V t2232 = c[56] * t2230;
        // spectrum block of 7, multiplier 2
        const V t2233 = t2122 - t2123;
        const V t2234 = c[2] * t2055;
        const V t2235 = t2233 + t2234;
        const V t2236 = t2125 - t2124;
        const V t2237 = c[4] * t2053;
        const V t2238 = t2236 + t2237;
        const V t2239 = t2235 - t2238;
        const V t2240 = t2235 + t2238;
        const V t2241 = t2127 + t2128;
        const V t2242 = c[0] * t2055;
        const V t2243 = t2241 - t2242;
        const V t2244 = t2130 - t2129;
        const V t2245 = c[5] * t2053;
        const V t2246 = t2244 - t2245;
        const V t2247 = t2243 - t2246;
        const V t2248 = t2243 + t2246;
        // spectrum block of 7, multiplier 2
        const V t2249 = t2105 - t2106;
        const V t2250 = c[1] * t2059;
        const V t2251 = t2249 - t2250;
        const V t2252 = c[4] * t2112;
        const V t2253 = c[5] * t2110;
        const V t2254 = t2252 - t2253;
        const V t2255 = c[3] * t2062;
        const V t2256 = t2251 + t2158;
        const V t2257 = t2254 - t2255;
        const V t2258 = t2256 - t2257;
        const V t2259 = t2256 + t2257;
        const V t2260 = t2158 - t2107;
        const V t2261 = t2260 - t2108;
        const V t2262 = c[2] * t2059;
        const V t2263 = t2261 + t2262;
        const V t2264 = t2113 + t2111;
        const V t2265 = c[4] * t2062;
        const V t2266 = t2264 + t2265;
        const V t2267 = t2263 - t2266;
        const V t2268 = t2263 + t2266;
        // complex block of 59
        const V t2269 = c[69] * t2268;
        // spectrum block of 7, multiplier 2
        const V t2270 = t2158 - t2109;
        const V t2271 = c[2] * t2102;
        const V t2272 = t2270 + t2271;
        const V t2273 = c[0] * t2059;
        const V t2274 = c[3] * t2112;
        const V t2275 = c[4] * t2110;
        const V t2276 = t2274 + t2275;
        const V t2277 = c[5] * t2062;
        const V t2278 = t2272 - t2273;
        const V t2279 = t2276 - t2277;
        const V t2280 = t2278 - t2279;
        const V t2281 = t2278 + t2279;
        // complex block of 59
        const V x0r = io.re(0);
        const V t2282 = x0r + t562;
        const V x0i = io.im(0);
        io.re(0, t2282);
        const V t2283 = x0i + t1703;
        io.im(0, t2283);
        const V t2284 = x0r - t563;
        const V t2285 = c[60] * t2197;
        const V t2286 = c[61] * t2194;
        const V t2287 = t2286 + t2285;
        const V t2288 = c[70] * t2248;
        const V t2289 = c[71] * t2168;
        const V t2290 = t2289 + t2288;
        const V t2291 = c[72] * t2247;
        const V t2292 = c[73] * t2169;
        const V t2293 = t2292 - t2291;
        const V t2294 = c[62] * t2259;
        const V t2295 = c[74] * t2195;
        const V t2296 = t2295 + t2294;
        // real block of 2
        const V t2297 = t2287 - t2290;
        // real block of 2
        const V t2298 = t2293 - t2296;
        // real block of 7, multiplier 2
        const V t2299 = t2298 + t2297;
        const V t2300 = t2298 - t2297;
        // real block of 2
        const V t2301 = t2290 + t2287;
        // real block of 2
        const V t2302 = t2293 + t2296;
        // real block of 7, multiplier 2
        const V t2303 = t2302 - t2301;
        const V t2304 = t2302 + t2301;
        // complex block of 59
        const V t2305 = c[75] * t2240;
        const V t2306 = c[76] * t2186;
        const V t2307 = t2306 - t2305;
        const V t2308 = c[67] * t2258;
        const V t2309 = c[77] * t2216;
        const V t2310 = t2309 - t2308;
        // real block of 2
        const V t2311 = t2307 + t2310;
        const V t2312 = t2307 - t2310;
        // complex block of 59
        const V t2313 = c[78] * t2239;
        const V t2314 = c[79] * t2187;
        const V t2315 = t2313 - t2314;
        const V t2316 = c[68] * t2268;
        const V t2317 = c[69] * t2218;
        const V t2318 = t2317 + t2316;
        // real block of 2
        const V t2319 = t2315 - t2318;
        const V t2320 = t2315 + t2318;
        // real block of 7, multiplier 2
        const V t2321 = t2319 + t2311;
        const V t2322 = c[0] * t2321;
        const V t2323 = t2319 - t2311;
        // real block of 7, multiplier 2
        const V t2324 = t2320 + t2312;
        const V t2325 = c[0] * t2324;
        const V t2326 = t2320 - t2312;
        // complex block of 59
        const V t2327 = c[59] * t2280;
        const V t2328 = t2190 + t2327;
        const V t2329 = t2161 - t2222;
        // real block of 2
        const V t2330 = t2329 - t2328;
        const V t2331 = t2329 + t2328;
        // complex block of 59
        const V t2332 = c[66] * t2267;
        const V t2333 = t2210 - t2332;
        const V t2334 = t2178 + t2231;
        // real block of 2
        const V t2335 = t2333 - t2334;
        const V t2336 = t2334 + t2333;
        // complex block of 59
        const V t2337 = t2175 - t2228;
        const V t2338 = c[64] * t2281;
        const V t2339 = t2207 + t2338;
        // real block of 2
        const V t2340 = t2337 + t2339;
        const V t2341 = t2337 - t2339;
        // real block of 7, multiplier 2
        const V t2342 = t2335 + t2340;
        const V t2343 = c[0] * t2342;
        const V t2344 = c[1] * t2342;
        const V t2345 = c[2] * t2342;
        const V t2346 = t2335 - t2340;
        // real block of 7, multiplier 2
        const V t2347 = t2341 - t2336;
        const V t2348 = c[0] * t2347;
        const V t2349 = c[1] * t2347;
        const V t2350 = c[2] * t2347;
        const V t2351 = t2336 + t2341;
        // real block of 7, multiplier 2
        const V t2352 = t2342 + t2321;
        const V t2353 = t2352 + t2299;
        const V t2354 = t2353 + t2330;
        // spectrum block of 29, multiplier 2
        const V t2355 = c[32] * t2354;
        // real block of 7, multiplier 2
        const V t2356 = t2330 - t2343;
        const V t2357 = c[1] * t2321;
        const V t2358 = t2356 - t2357;
        const V t2359 = c[2] * t2299;
        const V t2360 = t2358 + t2359;
        // spectrum block of 29, multiplier 2
        const V t2361 = c[6] * t2360;
        const V t2362 = c[7] * t2360;
        // real block of 7, multiplier 2
        const V t2363 = c[5] * t2346;
        const V t2364 = c[3] * t2323;
        const V t2365 = t2363 + t2364;
        const V t2366 = c[4] * t2300;
        const V t2367 = t2365 + t2366;
        // spectrum block of 29, multiplier 2
        const V t2368 = c[7] * t2367;
        const V t2369 = c[6] * t2367;
        // real block of 7, multiplier 2
        const V t2370 = t2330 - t2344;
        const V t2371 = c[2] * t2321;
        const V t2372 = t2370 + t2371;
        const V t2373 = c[0] * t2299;
        const V t2374 = t2372 - t2373;
        // spectrum block of 29, multiplier 2
        const V t2375 = c[14] * t2374;
        const V t2376 = c[15] * t2374;
        // real block of 7, multiplier 2
        const V t2377 = c[3] * t2346;
        const V t2378 = c[4] * t2323;
        const V t2379 = t2377 + t2378;
        const V t2380 = c[5] * t2300;
        const V t2381 = t2379 - t2380;
        // spectrum block of 29, multiplier 2
        const V t2382 = c[15] * t2381;
        const V t2383 = c[14] * t2381;
        // real block of 7, multiplier 2
        const V t2384 = t2345 - t2322;
        const V t2385 = c[1] * t2299;
        const V t2386 = t2384 - t2385;
        const V t2387 = t2386 + t2330;
        // spectrum block of 29, multiplier 2
        const V t2388 = c[25] * t2387;
        // real block of 7, multiplier 2
        const V t2389 = c[4] * t2346;
        const V t2390 = c[5] * t2323;
        const V t2391 = t2389 - t2390;
        const V t2392 = c[3] * t2300;
        const V t2393 = t2391 - t2392;
        // spectrum block of 29, multiplier 2
        const V t2394 = c[18] * t2393;
        const V t2395 = c[25] * t2393;
        // real block of 7, multiplier 2
        const V t2396 = t2347 + t2324;
        const V t2397 = t2396 + t2303;
        const V t2398 = t2397 + t2331;
        // spectrum block of 29, multiplier 2
        const V t2399 = c[33] * t2398;
        // real block of 7, multiplier 2
        const V t2400 = t2331 - t2348;
        const V t2401 = c[1] * t2324;
        const V t2402 = t2400 - t2401;
        const V t2403 = c[2] * t2303;
        const V t2404 = t2402 + t2403;
        // spectrum block of 29, multiplier 2
        const V t2405 = c[8] * t2404;
        const V t2406 = c[9] * t2404;
        // real block of 7, multiplier 2
        const V t2407 = c[5] * t2351;
        const V t2408 = c[3] * t2326;
        const V t2409 = t2407 - t2408;
        const V t2410 = c[4] * t2304;
        const V t2411 = t2409 - t2410;
        // spectrum block of 29, multiplier 2
        const V t2412 = c[9] * t2411;
        const V t2413 = c[8] * t2411;
        // real block of 7, multiplier 2
        const V t2414 = t2331 - t2349;
        const V t2415 = c[2] * t2324;
        const V t2416 = t2414 + t2415;
        const V t2417 = c[0] * t2303;
        const V t2418 = t2416 - t2417;
        // spectrum block of 29, multiplier 2
        const V t2419 = c[16] * t2418;
        const V t2420 = c[17] * t2418;
        // real block of 7, multiplier 2
        const V t2421 = c[3] * t2351;
        const V t2422 = c[4] * t2326;
        const V t2423 = t2422 - t2421;
        const V t2424 = c[5] * t2304;
        const V t2425 = t2423 - t2424;
        // spectrum block of 29, multiplier 2
        const V t2426 = c[17] * t2425;
        const V t2427 = c[16] * t2425;
        // real block of 7, multiplier 2
        const V t2428 = t2350 - t2325;
        const V t2429 = c[1] * t2303;
        const V t2430 = t2428 - t2429;
        const V t2431 = t2430 + t2331;
        // spectrum block of 29, multiplier 2
        const V t2432 = c[24] * t2431;
        // real block of 7, multiplier 2
        const V t2433 = c[4] * t2351;
        const V t2434 = c[5] * t2326;
        const V t2435 = t2433 + t2434;
        const V t2436 = c[3] * t2304;
        const V t2437 = t2435 + t2436;
        // spectrum block of 29, multiplier 2
        const V t2438 = c[19] * t2437;
        const V t2439 = c[24] * t2437;
        // complex block of 59
        const V t2440 = t731 + t792;
        const V t2441 = c[41] * t850;
        const V t2442 = t2441 - t760;
        // real block of 2
        const V t2443 = t2440 + t2442;
        const V t2444 = t2440 - t2442;
        // complex block of 59
        const V t2445 = c[42] * t829;
        const V t2446 = c[80] * t765;
        const V t2447 = t2445 - t2446;
        const V t2448 = c[81] * t817;
        const V t2449 = c[82] * t739;
        const V t2450 = t2449 + t2448;
        const V t2451 = c[83] * t818;
        const V t2452 = c[84] * t738;
        const V t2453 = t2451 - t2452;
        const V t2454 = c[43] * t767;
        const V t2455 = c[44] * t764;
        const V t2456 = t2455 + t2454;
        // real block of 2
        const V t2457 = t2453 + t2456;
        // real block of 2
        const V t2458 = t2450 + t2447;
        // real block of 7, multiplier 2
        const V t2459 = t2458 + t2457;
        const V t2460 = t2458 - t2457;
        // real block of 2
        const V t2461 = t2453 - t2456;
        // real block of 2
        const V t2462 = t2450 - t2447;
        // real block of 7, multiplier 2
        const V t2463 = t2462 + t2461;
        const V t2464 = t2462 - t2461;
        // complex block of 59
        const V t2465 = c[46] * t851;
        const V t2466 = t777 + t2465;
        const V t2467 = t745 + t798;
        // real block of 2
        const V t2468 = t2466 - t2467;
        const V t2469 = t2467 + t2466;
        // complex block of 59
        const V t2470 = t748 + t801;
        const V t2471 = c[48] * t837;
        const V t2472 = t780 + t2471;
        // real block of 2
        const V t2473 = t2470 - t2472;
        const V t2474 = t2470 + t2472;
        // real block of 7, multiplier 2
        const V t2475 = t2473 + t2468;
        const V t2476 = c[0] * t2475;
        const V t2477 = c[1] * t2475;
        const V t2478 = c[2] * t2475;
        const V t2479 = t2473 - t2468;
        // real block of 7, multiplier 2
        const V t2480 = t2474 - t2469;
        const V t2481 = c[0] * t2480;
        const V t2482 = c[1] * t2480;
        const V t2483 = c[2] * t2480;
        const V t2484 = t2474 + t2469;
        // complex block of 59
        const V t2485 = c[50] * t838;
        const V t2486 = c[51] * t788;
        const V t2487 = t2486 + t2485;
        const V t2488 = c[85] * t809;
        const V t2489 = c[86] * t757;
        const V t2490 = t2489 - t2488;
        // real block of 2
        const V t2491 = t2490 + t2487;
        const V t2492 = t2490 - t2487;
        // complex block of 59
        const V t2493 = c[49] * t828;
        const V t2494 = c[87] * t786;
        const V t2495 = t2494 + t2493;
        const V t2496 = c[88] * t810;
        const V t2497 = c[89] * t756;
        const V t2498 = t2497 + t2496;
        // real block of 2
        const V t2499 = t2498 + t2495;
        const V t2500 = t2498 - t2495;
        // real block of 7, multiplier 2
        const V t2501 = t2491 + t2499;
        const V t2502 = c[0] * t2501;
        const V t2503 = t2491 - t2499;
        // real block of 7, multiplier 2
        const V t2504 = t2492 + t2500;
        const V t2505 = c[0] * t2504;
        const V t2506 = t2492 - t2500;
        // real block of 7, multiplier 2
        const V t2507 = t2475 + t2501;
        const V t2508 = t2507 + t2459;
        const V t2509 = t2508 + t2443;
        // spectrum block of 29, multiplier 2
        const V t2510 = c[32] * t2509;
        // real block of 7, multiplier 2
        const V t2511 = t2443 - t2476;
        const V t2512 = c[1] * t2501;
        const V t2513 = t2511 - t2512;
        const V t2514 = c[2] * t2459;
        const V t2515 = t2513 + t2514;
        // spectrum block of 29, multiplier 2
        const V t2516 = c[6] * t2515;
        const V t2517 = c[7] * t2515;
        // real block of 7, multiplier 2
        const V t2518 = c[5] * t2479;
        const V t2519 = c[3] * t2503;
        const V t2520 = t2518 + t2519;
        const V t2521 = c[4] * t2460;
        const V t2522 = t2520 + t2521;
        // spectrum block of 29, multiplier 2
        const V t2523 = c[7] * t2522;
        const V t2524 = c[6] * t2522;
        // real block of 7, multiplier 2
        const V t2525 = t2443 - t2477;
        const V t2526 = c[2] * t2501;
        const V t2527 = t2525 + t2526;
        const V t2528 = c[0] * t2459;
        const V t2529 = t2527 - t2528;
        // spectrum block of 29, multiplier 2
        const V t2530 = c[14] * t2529;
        const V t2531 = c[15] * t2529;
        // real block of 7, multiplier 2
        const V t2532 = c[3] * t2479;
        const V t2533 = c[4] * t2503;
        const V t2534 = t2532 + t2533;
        const V t2535 = c[5] * t2460;
        const V t2536 = t2534 - t2535;
        // spectrum block of 29, multiplier 2
        const V t2537 = c[15] * t2536;
        const V t2538 = c[14] * t2536;
        // real block of 7, multiplier 2
        const V t2539 = t2478 - t2502;
        const V t2540 = c[1] * t2459;
        const V t2541 = t2539 - t2540;
        const V t2542 = t2541 + t2443;
        // spectrum block of 29, multiplier 2
        const V t2543 = c[25] * t2542;
        // real block of 7, multiplier 2
        const V t2544 = c[4] * t2479;
        const V t2545 = c[5] * t2503;
        const V t2546 = t2544 - t2545;
        const V t2547 = c[3] * t2460;
        const V t2548 = t2546 - t2547;
        // spectrum block of 29, multiplier 2
        const V t2549 = c[18] * t2548;
        const V t2550 = c[25] * t2548;
        // real block of 7, multiplier 2
        const V t2551 = t2480 + t2504;
        const V t2552 = t2551 + t2463;
        const V t2553 = t2552 + t2444;
        // spectrum block of 29, multiplier 2
        const V t2554 = c[33] * t2553;
        // real block of 7, multiplier 2
        const V t2555 = t2444 - t2481;
        const V t2556 = c[1] * t2504;
        const V t2557 = t2555 - t2556;
        const V t2558 = c[2] * t2463;
        const V t2559 = t2557 + t2558;
        // spectrum block of 29, multiplier 2
        const V t2560 = c[8] * t2559;
        const V t2561 = c[9] * t2559;
        // real block of 7, multiplier 2
        const V t2562 = c[5] * t2484;
        const V t2563 = c[3] * t2506;
        const V t2564 = t2562 + t2563;
        const V t2565 = c[4] * t2464;
        const V t2566 = t2564 + t2565;
        // spectrum block of 29, multiplier 2
        const V t2567 = c[9] * t2566;
        const V t2568 = c[8] * t2566;
        // real block of 7, multiplier 2
        const V t2569 = t2444 - t2482;
        const V t2570 = c[2] * t2504;
        const V t2571 = t2569 + t2570;
        const V t2572 = c[0] * t2463;
        const V t2573 = t2571 - t2572;
        // spectrum block of 29, multiplier 2
        const V t2574 = c[16] * t2573;
        const V t2575 = c[17] * t2573;
        // real block of 7, multiplier 2
        const V t2576 = c[3] * t2484;
        const V t2577 = c[4] * t2506;
        const V t2578 = t2576 + t2577;
        const V t2579 = c[5] * t2464;
        const V t2580 = t2578 - t2579;
        // spectrum block of 29, multiplier 2
        const V t2581 = c[17] * t2580;
        const V t2582 = c[16] * t2580;
        // real block of 7, multiplier 2
        const V t2583 = t2483 - t2505;
        const V t2584 = c[1] * t2463;
        const V t2585 = t2583 - t2584;
        const V t2586 = t2585 + t2444;
        // spectrum block of 29, multiplier 2
        const V t2587 = c[24] * t2586;
        // real block of 7, multiplier 2
        const V t2588 = c[4] * t2484;
        const V t2589 = c[5] * t2506;
        const V t2590 = t2588 - t2589;
        const V t2591 = c[3] * t2464;
        const V t2592 = t2590 - t2591;
        // spectrum block of 29, multiplier 2
        const V t2593 = c[19] * t2592;
        const V t2594 = c[24] * t2592;
        // complex block of 59
        const V t2595 = t793 - t732;
        const V t2596 = t749 - t802;
        const V t2597 = t746 - t799;
        // real block of 7
        const V t2598 = t2597 - t2596;
        const V t2599 = t2596 + t2597;
        // complex block of 59
        const V t2600 = c[85] * t757;
        const V t2601 = c[86] * t809;
        const V t2602 = t2601 + t2600;
        const V t2603 = c[88] * t756;
        const V t2604 = c[89] * t810;
        const V t2605 = t2603 - t2604;
        // real block of 7
        const V t2606 = t2602 - t2605;
        const V t2607 = t2598 + t2606;
        const V t2608 = c[0] * t2606;
        const V t2609 = c[1] * t2606;
        const V t2610 = c[2] * t2606;
        const V t2611 = t2602 + t2605;
        const V t2612 = c[5] * t2611;
        const V t2613 = c[3] * t2611;
        const V t2614 = c[4] * t2611;
        const V t2615 = c[2] * t2598;
        const V t2616 = c[4] * t2599;
        const V t2617 = c[0] * t2598;
        const V t2618 = t2595 - t2617;
        const V t2619 = c[5] * t2599;
        const V t2620 = c[1] * t2598;
        const V t2621 = t2595 - t2620;
        const V t2622 = c[3] * t2599;
        // complex block of 59
        const V t2623 = c[80] * t829;
        const V t2624 = t2623 + t768;
        const V t2625 = c[45] * t851;
        const V t2626 = t778 - t2625;
        const V t2627 = c[87] * t828;
        const V t2628 = t787 - t2627;
        // real block of 7
        const V t2629 = t2628 + t2626;
        const V t2630 = t2628 - t2626;
        // complex block of 59
        const V t2631 = t839 - t789;
        // real block of 7
        const V t2632 = t771 - t2631;
        const V t2633 = t2631 + t771;
        const V t2634 = c[0] * t2632;
        const V t2635 = c[1] * t2632;
        // complex block of 59
        const V t2636 = c[47] * t837;
        const V t2637 = t781 - t2636;
        const V t2638 = c[40] * t850;
        const V t2639 = t2638 + t761;
        // real block of 7
        const V t2640 = t2637 + t2639;
        const V t2641 = t2639 - t2637;
        const V t2642 = c[1] * t2641;
        const V t2643 = c[2] * t2641;
        const V t2644 = c[0] * t2641;
        const V t2645 = t2632 + t2629;
        const V t2646 = c[2] * t2632;
        const V t2647 = c[0] * t2629;
        const V t2648 = t2646 - t2647;
        const V t2649 = c[4] * t2633;
        const V t2650 = c[5] * t2630;
        const V t2651 = t2649 + t2650;
        const V t2652 = c[3] * t2640;
        const V t2653 = t2624 - t2634;
        const V t2654 = c[1] * t2629;
        const V t2655 = t2653 - t2654;
        const V t2656 = c[5] * t2633;
        const V t2657 = c[4] * t2640;
        const V t2658 = t2656 + t2657;
        const V t2659 = c[3] * t2630;
        const V t2660 = t2624 - t2635;
        const V t2661 = c[2] * t2629;
        const V t2662 = t2660 + t2661;
        const V t2663 = c[3] * t2633;
        const V t2664 = c[4] * t2630;
        const V t2665 = t2663 - t2664;
        const V t2666 = c[5] * t2640;
        // complex block of 59
        const V t2667 = c[81] * t739;
        const V t2668 = c[82] * t817;
        const V t2669 = t2667 - t2668;
        const V t2670 = c[83] * t738;
        const V t2671 = c[84] * t818;
        const V t2672 = t2671 + t2670;
        // real block of 7
        const V t2673 = t2669 + t2672;
        const V t2674 = c[1] * t2673;
        const V t2675 = c[2] * t2673;
        const V t2676 = c[0] * t2673;
        const V t2677 = t2672 - t2669;
        const V t2678 = c[4] * t2677;
        const V t2679 = c[5] * t2677;
        const V t2680 = t2607 - t2673;
        const V t2681 = t2680 + t2595;
        // spectrum block of 29, multiplier 2
        const V t2682 = c[30] * t2681;
        const V t2683 = c[31] * t2681;
        // real block of 7
        const V t2684 = t2615 - t2608;
        const V t2685 = t2684 + t2674;
        const V t2686 = c[3] * t2677;
        const V t2687 = t2616 + t2612;
        const V t2688 = t2687 + t2686;
        // real block of 7
        const V t2689 = t2648 - t2642;
        const V t2690 = t2689 + t2624;
        // skew block of 14
        const V t2691 = c[3] * t2690;
        const V t2692 = c[1] * t2690;
        // real block of 7
        const V t2693 = t2651 - t2652;
        // skew block of 14
        const V t2694 = c[1] * t2693;
        const V t2695 = c[3] * t2693;
        // real block of 7
        const V t2696 = t2685 + t2595;
        // skew block of 14
        const V t2697 = t2691 - t2694;
        // complex block of 2
        const V t2698 = t2696 + t2697;
        const V t2699 = t2696 - t2697;
        // skew block of 14
        const V t2700 = t2695 + t2692;
        // complex block of 2
        const V t2701 = t2688 + t2700;
        const V t2702 = t2700 - t2688;
        // real block of 7
        const V t2703 = t2618 - t2609;
        const V t2704 = t2703 - t2675;
        const V t2705 = t2619 - t2613;
        const V t2706 = t2705 - t2678;
        // real block of 7
        const V t2707 = t2655 + t2643;
        // skew block of 14
        const V t2708 = c[4] * t2707;
        const V t2709 = c[2] * t2707;
        // real block of 7
        const V t2710 = t2658 - t2659;
        // skew block of 14
        const V t2711 = c[2] * t2710;
        const V t2712 = c[4] * t2710;
        const V t2713 = t2708 - t2711;
        const V t2714 = t2712 + t2709;
        // complex block of 2
        const V t2715 = t2704 + t2713;
        // spectrum block of 29, multiplier 2
        const V t2716 = c[13] * t2715;
        const V t2717 = c[12] * t2715;
        // complex block of 2
        const V t2718 = t2706 + t2714;
        // spectrum block of 29, multiplier 2
        const V t2719 = c[12] * t2718;
        const V t2720 = c[13] * t2718;
        // complex block of 2
        const V t2721 = t2704 - t2713;
        // spectrum block of 29, multiplier 2
        const V t2722 = c[11] * t2721;
        const V t2723 = c[10] * t2721;
        // complex block of 2
        const V t2724 = t2714 - t2706;
        // spectrum block of 29, multiplier 2
        const V t2725 = c[10] * t2724;
        const V t2726 = c[11] * t2724;
        // real block of 7
        const V t2727 = t2621 + t2610;
        const V t2728 = t2727 + t2676;
        const V t2729 = t2622 + t2679;
        const V t2730 = t2729 - t2614;
        // real block of 7
        const V t2731 = t2662 - t2644;
        // skew block of 14
        const V t2732 = c[5] * t2731;
        const V t2733 = c[0] * t2731;
        // real block of 7
        const V t2734 = t2665 - t2666;
        // skew block of 14
        const V t2735 = c[0] * t2734;
        const V t2736 = c[5] * t2734;
        const V t2737 = t2732 - t2735;
        const V t2738 = t2736 + t2733;
        // complex block of 2
        const V t2739 = t2728 + t2737;
        // spectrum block of 29, multiplier 2
        const V t2740 = c[26] * t2739;
        const V t2741 = c[27] * t2739;
        // complex block of 2
        const V t2742 = t2730 + t2738;
        // spectrum block of 29, multiplier 2
        const V t2743 = c[27] * t2742;
        const V t2744 = c[26] * t2742;
        // complex block of 2
        const V t2745 = t2728 - t2737;
        // spectrum block of 29, multiplier 2
        const V t2746 = c[28] * t2745;
        const V t2747 = c[29] * t2745;
        // complex block of 2
        const V t2748 = t2738 - t2730;
        // spectrum block of 29, multiplier 2
        const V t2749 = c[29] * t2748;
        const V t2750 = c[28] * t2748;
        // real block of 7
        const V t2751 = t2645 + t2641;
        const V t2752 = t2751 + t2624;
        // spectrum block of 29, multiplier 2
        const V t2753 = c[31] * t2752;
        const V t2754 = c[30] * t2752;
        // complex block of 59
        const V t2755 = c[75] * t2186;
        const V t2756 = c[76] * t2240;
        const V t2757 = t2756 + t2755;
        const V t2758 = c[78] * t2187;
        const V t2759 = c[79] * t2239;
        const V t2760 = t2759 + t2758;
        const V t2761 = t2229 + t2176;
        const V t2762 = t2179 - t2232;
        // real block of 7
        const V t2763 = t2762 + t2761;
        const V t2764 = t2762 - t2761;
        // complex block of 59
        const V t2765 = t2223 + t2162;
        // real block of 7
        const V t2766 = t2757 - t2760;
        const V t2767 = t2763 + t2766;
        const V t2768 = c[0] * t2766;
        const V t2769 = c[1] * t2766;
        const V t2770 = c[2] * t2766;
        const V t2771 = t2760 + t2757;
        const V t2772 = c[3] * t2771;
        const V t2773 = c[4] * t2771;
        const V t2774 = c[2] * t2763;
        const V t2775 = c[4] * t2764;
        const V t2776 = c[0] * t2763;
        const V t2777 = t2765 - t2776;
        const V t2778 = c[5] * t2764;
        const V t2779 = c[1] * t2763;
        const V t2780 = t2765 - t2779;
        const V t2781 = c[3] * t2764;
        // complex block of 59
        const V t2782 = c[58] * t2280;
        const V t2783 = t2782 - t2191;
        const V t2784 = c[65] * t2267;
        const V t2785 = t2784 + t2211;
        // real block of 7
        const V t2786 = t2785 + t2783;
        // complex block of 59
        const V t2787 = c[77] * t2258;
        const V t2788 = t2787 + t2217;
        const V t2789 = c[63] * t2281;
        const V t2790 = t2789 - t2208;
        // real block of 7
        const V t2791 = t2788 + t2790;
        const V t2792 = t2790 - t2788;
        // complex block of 59
        const V t2793 = t2269 - t2219;
        // real block of 7
        const V t2794 = t2793 - t2200;
        const V t2795 = t2793 + t2200;
        const V t2796 = c[0] * t2794;
        const V t2797 = c[1] * t2794;
        // complex block of 59
        const V t2798 = c[74] * t2259;
        const V t2799 = t2201 - t2798;
        // real block of 7
        const V t2800 = t2783 - t2785;
        const V t2801 = c[1] * t2800;
        const V t2802 = c[2] * t2800;
        const V t2803 = c[0] * t2800;
        const V t2804 = t2794 - t2791;
        const V t2805 = c[2] * t2794;
        const V t2806 = c[0] * t2791;
        const V t2807 = t2805 + t2806;
        const V t2808 = c[4] * t2795;
        const V t2809 = c[5] * t2792;
        const V t2810 = t2809 - t2808;
        const V t2811 = c[3] * t2786;
        const V t2812 = t2799 + t2796;
        const V t2813 = c[1] * t2791;
        const V t2814 = t2813 - t2812;
        const V t2815 = c[5] * t2795;
        const V t2816 = c[4] * t2786;
        const V t2817 = t2816 - t2815;
        const V t2818 = c[3] * t2792;
        const V t2819 = t2799 + t2797;
        const V t2820 = c[2] * t2791;
        const V t2821 = t2819 + t2820;
        const V t2822 = c[3] * t2795;
        const V t2823 = c[4] * t2792;
        const V t2824 = t2822 + t2823;
        const V t2825 = c[5] * t2786;
        // complex block of 59
        const V t2826 = c[70] * t2168;
        const V t2827 = c[71] * t2248;
        const V t2828 = t2826 - t2827;
        const V t2829 = c[72] * t2169;
        const V t2830 = c[73] * t2247;
        const V t2831 = t2830 + t2829;
        // real block of 7
        const V t2832 = t2831 + t2828;
        const V t2833 = c[1] * t2832;
        const V t2834 = c[2] * t2832;
        const V t2835 = c[0] * t2832;
        const V t2836 = t2831 - t2828;
        const V t2837 = c[3] * t2836;
        const V t2838 = c[4] * t2836;
        const V t2839 = c[5] * t2836;
        const V t2840 = t2767 + t2832;
        const V t2841 = t2840 + t2765;
        // spectrum block of 29, multiplier 2
        const V t2842 = c[30] * t2841;
        const V t2843 = c[31] * t2841;
        // real block of 7
        const V t2844 = t2774 - t2768;
        const V t2845 = t2844 - t2833;
        const V t2846 = c[5] * t2771;
        const V t2847 = t2837 - t2775;
        const V t2848 = t2847 - t2846;
        // real block of 7
        const V t2849 = t2807 - t2801;
        const V t2850 = t2849 - t2799;
        // skew block of 14
        const V t2851 = c[3] * t2850;
        const V t2852 = c[1] * t2850;
        // real block of 7
        const V t2853 = t2810 - t2811;
        // skew block of 14
        const V t2854 = c[1] * t2853;
        const V t2855 = c[3] * t2853;
        // real block of 7
        const V t2856 = t2845 + t2765;
        // skew block of 14
        const V t2857 = t2851 - t2854;
        // complex block of 2
        const V t2858 = t2856 + t2857;
        const V t2859 = t2856 - t2857;
        // skew block of 14
        const V t2860 = t2855 + t2852;
        // complex block of 2
        const V t2861 = t2848 + t2860;
        const V t2862 = t2860 - t2848;
        // real block of 7
        const V t2863 = t2777 - t2769;
        const V t2864 = t2863 + t2834;
        const V t2865 = t2772 - t2778;
        const V t2866 = t2865 - t2838;
        // real block of 7
        const V t2867 = t2814 + t2802;
        // skew block of 14
        const V t2868 = c[4] * t2867;
        const V t2869 = c[2] * t2867;
        // real block of 7
        const V t2870 = t2817 - t2818;
        // skew block of 14
        const V t2871 = c[2] * t2870;
        const V t2872 = c[4] * t2870;
        const V t2873 = t2868 - t2871;
        const V t2874 = t2872 + t2869;
        // complex block of 2
        const V t2875 = t2864 + t2873;
        // spectrum block of 29, multiplier 2
        const V t2876 = c[13] * t2875;
        const V t2877 = c[12] * t2875;
        // complex block of 2
        const V t2878 = t2866 + t2874;
        // spectrum block of 29, multiplier 2
        const V t2879 = c[12] * t2878;
        const V t2880 = c[13] * t2878;
        // complex block of 2
        const V t2881 = t2864 - t2873;
        // spectrum block of 29, multiplier 2
        const V t2882 = c[11] * t2881;
        const V t2883 = c[10] * t2881;
        // complex block of 2
        const V t2884 = t2874 - t2866;
        // spectrum block of 29, multiplier 2
        const V t2885 = c[10] * t2884;
        const V t2886 = c[11] * t2884;
        // real block of 7
        const V t2887 = t2780 + t2770;
        const V t2888 = t2887 - t2835;
        const V t2889 = t2773 + t2839;
        const V t2890 = t2889 - t2781;
        // real block of 7
        const V t2891 = t2821 + t2803;
        // skew block of 14
        const V t2892 = c[5] * t2891;
        const V t2893 = c[0] * t2891;
        // real block of 7
        const V t2894 = t2824 + t2825;
        // skew block of 14
        const V t2895 = c[0] * t2894;
        const V t2896 = c[5] * t2894;
        const V t2897 = t2895 - t2892;
        const V t2898 = t2896 + t2893;
        // complex block of 2
        const V t2899 = t2888 + t2897;
        // spectrum block of 29, multiplier 2
        const V t2900 = c[26] * t2899;
        const V t2901 = c[27] * t2899;
        // complex block of 2
        const V t2902 = t2898 - t2890;
        // spectrum block of 29, multiplier 2
        const V t2903 = c[27] * t2902;
        const V t2904 = c[26] * t2902;
        // complex block of 2
        const V t2905 = t2888 - t2897;
        // spectrum block of 29, multiplier 2
        const V t2906 = c[28] * t2905;
        const V t2907 = c[29] * t2905;
        // complex block of 2
        const V t2908 = t2890 + t2898;
        // spectrum block of 29, multiplier 2
        const V t2909 = c[29] * t2908;
        const V t2910 = c[28] * t2908;
        // real block of 7
        const V t2911 = t2804 + t2800;
        const V t2912 = t2911 - t2799;
        // spectrum block of 29, multiplier 2
        const V t2913 = c[31] * t2912;
        const V t2914 = c[30] * t2912;
        // complex block of 59
        const V t2915 = c[91] * t1993;
        // spectrum block of 29, multiplier 2
        const V t2916 = t2284 - t2510;
        const V t2917 = t2516 - t2523;
        // spectrum block of 7, multiplier 4
        const V t2918 = c[2] * t2917;
        const V t2919 = c[0] * t2917;
        const V t2920 = c[1] * t2917;
        // spectrum block of 29, multiplier 2
        const V t2921 = t2530 - t2537;
        // spectrum block of 7, multiplier 4
        const V t2922 = c[0] * t2921;
        const V t2923 = t2917 + t2921;
        const V t2924 = t2918 - t2922;
        const V t2925 = t2916 - t2919;
        const V t2926 = c[1] * t2921;
        const V t2927 = t2916 - t2920;
        const V t2928 = c[2] * t2921;
        // spectrum block of 29, multiplier 2
        const V t2929 = t2543 + t2549;
        // spectrum block of 7, multiplier 4
        const V t2930 = c[1] * t2929;
        const V t2931 = c[2] * t2929;
        const V t2932 = c[0] * t2929;
        const V t2933 = t2923 + t2929;
        const V t2934 = t2933 + t2916;
        const V t2935 = t2924 - t2930;
        const V t2936 = t2935 + t2916;
        const V t2937 = t2925 - t2926;
        const V t2938 = t2937 + t2931;
        const V t2939 = t2927 + t2928;
        const V t2940 = t2939 - t2932;
        // spectrum block of 29, multiplier 2
        const V t2941 = t2740 + t2743;
        const V t2942 = t2746 + t2749;
        // complex block of 7, multiplier 4
        const V t2943 = t2941 + t2942;
        const V t2944 = t2942 - t2941;
        const V t2945 = c[0] * t2943;
        // spectrum block of 29, multiplier 2
        const V t2946 = t2716 - t2719;
        const V t2947 = t2722 - t2725;
        // complex block of 7, multiplier 4
        const V t2948 = t2947 + t2946;
        const V t2949 = t2947 - t2946;
        const V t2950 = c[2] * t2948;
        const V t2951 = c[0] * t2948;
        const V t2952 = c[1] * t2948;
        // spectrum block of 29, multiplier 2
        const V t2953 = c[22] * t2701;
        const V t2954 = c[23] * t2698;
        const V t2955 = t2953 - t2954;
        const V t2956 = c[20] * t2702;
        const V t2957 = c[21] * t2699;
        const V t2958 = t2957 + t2956;
        // complex block of 7, multiplier 4
        const V t2959 = t2955 + t2958;
        // spectrum block of 29, multiplier 2
        const V t2960 = t2682 - t2753;
        // complex block of 7, multiplier 4
        const V t2961 = t2955 - t2958;
        const V t2962 = c[3] * t2961;
        const V t2963 = c[4] * t2961;
        const V t2964 = c[5] * t2961;
        const V t2965 = t2948 - t2943;
        const V t2966 = t2965 + t2959;
        const V t2967 = t2950 + t2945;
        const V t2968 = c[1] * t2959;
        const V t2969 = t2967 - t2968;
        const V t2970 = c[4] * t2949;
        const V t2971 = c[5] * t2944;
        const V t2972 = t2970 - t2971;
        const V t2973 = t2960 - t2951;
        const V t2974 = c[1] * t2943;
        const V t2975 = t2973 + t2974;
        const V t2976 = c[2] * t2959;
        const V t2977 = c[5] * t2949;
        const V t2978 = c[3] * t2944;
        const V t2979 = t2977 + t2978;
        const V t2980 = t2960 - t2952;
        const V t2981 = c[2] * t2943;
        const V t2982 = t2980 - t2981;
        const V t2983 = c[0] * t2959;
        const V t2984 = c[3] * t2949;
        const V t2985 = c[4] * t2944;
        const V t2986 = t2984 + t2985;
        // spectrum block of 29, multiplier 2
        const V t2987 = t2744 - t2741;
        const V t2988 = t2750 - t2747;
        // complex block of 7, multiplier 4
        const V t2989 = t2987 + t2988;
        const V t2990 = t2988 - t2987;
        const V t2991 = c[1] * t2989;
        const V t2992 = c[2] * t2989;
        // spectrum block of 29, multiplier 2
        const V t2993 = t2720 + t2717;
        const V t2994 = t2726 + t2723;
        // complex block of 7, multiplier 4
        const V t2995 = t2994 + t2993;
        const V t2996 = t2993 - t2994;
        const V t2997 = c[2] * t2995;
        const V t2998 = c[0] * t2995;
        const V t2999 = c[1] * t2995;
        // spectrum block of 29, multiplier 2
        const V t3000 = c[22] * t2698;
        const V t3001 = c[23] * t2701;
        const V t3002 = t3001 + t3000;
        const V t3003 = c[20] * t2699;
        const V t3004 = c[21] * t2702;
        const V t3005 = t3003 - t3004;
        // complex block of 7, multiplier 4
        const V t3006 = t3002 + t3005;
        // spectrum block of 29, multiplier 2
        const V t3007 = t2754 + t2683;
        // complex block of 7, multiplier 4
        const V t3008 = t3005 - t3002;
        const V t3009 = c[3] * t3008;
        const V t3010 = c[4] * t3008;
        const V t3011 = c[5] * t3008;
        const V t3012 = t2995 + t2989;
        const V t3013 = t3012 + t3006;
        const V t3014 = t3007 + t2997;
        const V t3015 = c[0] * t2989;
        const V t3016 = t3015 - t3014;
        const V t3017 = c[1] * t3006;
        const V t3018 = c[4] * t2996;
        const V t3019 = c[5] * t2990;
        const V t3020 = t3018 - t3019;
        const V t3021 = t2998 + t2991;
        const V t3022 = c[2] * t3006;
        const V t3023 = t3021 - t3022;
        const V t3024 = c[5] * t2996;
        const V t3025 = c[3] * t2990;
        const V t3026 = t3024 + t3025;
        const V t3027 = t2999 - t2992;
        const V t3028 = c[0] * t3006;
        const V t3029 = t3027 + t3028;
        const V t3030 = c[3] * t2996;
        const V t3031 = c[4] * t2990;
        const V t3032 = t3030 + t3031;
        // spectrum block of 29, multiplier 2
        const V t3033 = t2587 + t2593;
        // spectrum block of 7, multiplier 4
        const V t3034 = c[1] * t3033;
        const V t3035 = c[2] * t3033;
        const V t3036 = c[0] * t3033;
        // spectrum block of 29, multiplier 2
        const V t3037 = t2574 - t2581;
        // spectrum block of 7, multiplier 4
        const V t3038 = c[0] * t3037;
        // spectrum block of 29, multiplier 2
        const V t3039 = t2567 - t2560;
        // spectrum block of 7, multiplier 4
        const V t3040 = c[2] * t3039;
        const V t3041 = c[0] * t3039;
        const V t3042 = c[1] * t3039;
        const V t3043 = t3039 + t3037;
        const V t3044 = t3040 - t3038;
        const V t3045 = t2554 + t3041;
        const V t3046 = c[1] * t3037;
        const V t3047 = t2554 + t3042;
        const V t3048 = c[2] * t3037;
        const V t3049 = t3043 + t3033;
        const V t3050 = t3049 - t2554;
        const V t3051 = t3044 - t3034;
        const V t3052 = t3051 - t2554;
        const V t3053 = t3045 + t3046;
        const V t3054 = t3035 - t3053;
        const V t3055 = t3048 - t3047;
        const V t3056 = t3055 - t3036;
        // spectrum block of 29, multiplier 2
        const V t3057 = c[19] * t2586;
        const V t3058 = t3057 - t2594;
        const V t3059 = t2582 + t2575;
        // spectrum block of 7, multiplier 4
        const V t3060 = c[5] * t3059;
        const V t3061 = c[3] * t3059;
        const V t3062 = c[4] * t3059;
        // spectrum block of 29, multiplier 2
        const V t3063 = t2568 + t2561;
        // spectrum block of 7, multiplier 4
        const V t3064 = c[4] * t3063;
        const V t3065 = c[5] * t3063;
        const V t3066 = c[3] * t3063;
        const V t3067 = t3064 + t3060;
        const V t3068 = c[3] * t3058;
        const V t3069 = t3067 - t3068;
        const V t3070 = t3065 - t3061;
        const V t3071 = c[4] * t3058;
        const V t3072 = t3070 + t3071;
        const V t3073 = t3066 - t3062;
        const V t3074 = c[5] * t3058;
        const V t3075 = t3073 - t3074;
        // spectrum block of 29, multiplier 2
        const V t3076 = t2524 + t2517;
        // spectrum block of 7, multiplier 4
        const V t3077 = c[4] * t3076;
        const V t3078 = c[5] * t3076;
        const V t3079 = c[3] * t3076;
        // spectrum block of 29, multiplier 2
        const V t3080 = t2538 + t2531;
        // spectrum block of 7, multiplier 4
        const V t3081 = c[5] * t3080;
        const V t3082 = c[3] * t3080;
        const V t3083 = c[4] * t3080;
        // spectrum block of 29, multiplier 2
        const V t3084 = c[18] * t2542;
        const V t3085 = t2550 - t3084;
        // spectrum block of 7, multiplier 4
        const V t3086 = t3081 - t3077;
        const V t3087 = c[3] * t3085;
        const V t3088 = t3086 + t3087;
        const V t3089 = t3078 + t3082;
        const V t3090 = c[4] * t3085;
        const V t3091 = t3089 + t3090;
        const V t3092 = t3079 + t3083;
        const V t3093 = c[5] * t3085;
        const V t3094 = t3093 - t3092;
        // spectrum block of 29, multiplier 2
        const V t3095 = t2915 - t2355;
        const V t3096 = t2361 - t2368;
        // spectrum block of 7, multiplier 4
        const V t3097 = c[2] * t3096;
        const V t3098 = c[0] * t3096;
        const V t3099 = c[1] * t3096;
        // spectrum block of 29, multiplier 2
        const V t3100 = t2375 - t2382;
        // spectrum block of 7, multiplier 4
        const V t3101 = c[0] * t3100;
        const V t3102 = t3096 + t3100;
        const V t3103 = t3097 - t3101;
        const V t3104 = t3095 - t3098;
        const V t3105 = c[1] * t3100;
        const V t3106 = t3095 - t3099;
        const V t3107 = c[2] * t3100;
        // spectrum block of 29, multiplier 2
        const V t3108 = t2388 + t2394;
        // spectrum block of 7, multiplier 4
        const V t3109 = c[1] * t3108;
        const V t3110 = c[2] * t3108;
        const V t3111 = c[0] * t3108;
        const V t3112 = t3102 + t3108;
        const V t3113 = t3112 + t3095;
        const V t3114 = t3103 - t3109;
        const V t3115 = t3114 + t3095;
        const V t3116 = t3104 - t3105;
        const V t3117 = t3116 + t3110;
        const V t3118 = t3106 + t3107;
        const V t3119 = t3118 - t3111;
        // spectrum block of 29, multiplier 2
        const V t3120 = t2903 - t2900;
        const V t3121 = t2909 - t2906;
        // complex block of 7, multiplier 4
        const V t3122 = t3120 + t3121;
        const V t3123 = t3120 - t3121;
        const V t3124 = c[0] * t3122;
        // spectrum block of 29, multiplier 2
        const V t3125 = t2876 - t2879;
        const V t3126 = t2882 - t2885;
        // complex block of 7, multiplier 4
        const V t3127 = t3126 + t3125;
        const V t3128 = t3126 - t3125;
        const V t3129 = c[2] * t3127;
        const V t3130 = c[0] * t3127;
        const V t3131 = c[1] * t3127;
        // spectrum block of 29, multiplier 2
        const V t3132 = c[22] * t2861;
        const V t3133 = c[23] * t2858;
        const V t3134 = t3132 - t3133;
        const V t3135 = c[20] * t2862;
        const V t3136 = c[21] * t2859;
        const V t3137 = t3136 + t3135;
        // complex block of 7, multiplier 4
        const V t3138 = t3134 + t3137;
        // spectrum block of 29, multiplier 2
        const V t3139 = t2842 - t2913;
        // complex block of 7, multiplier 4
        const V t3140 = t3134 - t3137;
        const V t3141 = c[3] * t3140;
        const V t3142 = c[4] * t3140;
        const V t3143 = c[5] * t3140;
        const V t3144 = t3127 + t3122;
        const V t3145 = t3144 + t3138;
        const V t3146 = t3129 - t3124;
        const V t3147 = c[1] * t3138;
        const V t3148 = t3146 - t3147;
        const V t3149 = c[4] * t3128;
        const V t3150 = c[5] * t3123;
        const V t3151 = t3149 - t3150;
        const V t3152 = t3139 - t3130;
        const V t3153 = c[1] * t3122;
        const V t3154 = t3152 - t3153;
        const V t3155 = c[2] * t3138;
        const V t3156 = c[5] * t3128;
        const V t3157 = c[3] * t3123;
        const V t3158 = t3156 + t3157;
        const V t3159 = t3139 - t3131;
        const V t3160 = c[2] * t3122;
        const V t3161 = t3159 + t3160;
        const V t3162 = c[0] * t3138;
        const V t3163 = c[3] * t3128;
        const V t3164 = c[4] * t3123;
        const V t3165 = t3163 + t3164;
        // spectrum block of 29, multiplier 2
        const V t3166 = t2904 + t2901;
        const V t3167 = t2910 + t2907;
        // complex block of 7, multiplier 4
        const V t3168 = t3166 + t3167;
        const V t3169 = t3166 - t3167;
        const V t3170 = c[1] * t3168;
        const V t3171 = c[2] * t3168;
        // spectrum block of 29, multiplier 2
        const V t3172 = t2880 + t2877;
        const V t3173 = t2886 + t2883;
        // complex block of 7, multiplier 4
        const V t3174 = t3173 + t3172;
        const V t3175 = t3172 - t3173;
        const V t3176 = c[2] * t3174;
        const V t3177 = c[0] * t3174;
        const V t3178 = c[1] * t3174;
        // spectrum block of 29, multiplier 2
        const V t3179 = c[22] * t2858;
        const V t3180 = c[23] * t2861;
        const V t3181 = t3180 + t3179;
        const V t3182 = c[20] * t2859;
        const V t3183 = c[21] * t2862;
        const V t3184 = t3182 - t3183;
        // complex block of 7, multiplier 4
        const V t3185 = t3181 + t3184;
        // spectrum block of 29, multiplier 2
        const V t3186 = t2914 + t2843;
        // complex block of 7, multiplier 4
        const V t3187 = t3184 - t3181;
        const V t3188 = c[3] * t3187;
        const V t3189 = c[4] * t3187;
        const V t3190 = c[5] * t3187;
        const V t3191 = t3168 - t3174;
        const V t3192 = t3191 - t3185;
        const V t3193 = t3186 + t3176;
        const V t3194 = c[0] * t3168;
        const V t3195 = t3193 + t3194;
        const V t3196 = c[1] * t3185;
        const V t3197 = c[4] * t3175;
        const V t3198 = c[5] * t3169;
        const V t3199 = t3197 - t3198;
        const V t3200 = t3177 - t3170;
        const V t3201 = c[2] * t3185;
        const V t3202 = t3200 - t3201;
        const V t3203 = c[5] * t3175;
        const V t3204 = c[3] * t3169;
        const V t3205 = t3203 + t3204;
        const V t3206 = t3178 + t3171;
        const V t3207 = c[0] * t3185;
        const V t3208 = t3206 + t3207;
        const V t3209 = c[3] * t3175;
        const V t3210 = c[4] * t3169;
        const V t3211 = t3209 + t3210;
        // spectrum block of 29, multiplier 2
        const V t3212 = t2432 - t2438;
        // spectrum block of 7, multiplier 4
        const V t3213 = c[1] * t3212;
        const V t3214 = c[2] * t3212;
        const V t3215 = c[0] * t3212;
        // spectrum block of 29, multiplier 2
        const V t3216 = t2419 - t2426;
        // spectrum block of 7, multiplier 4
        const V t3217 = c[1] * t3216;
        const V t3218 = c[2] * t3216;
        // spectrum block of 29, multiplier 2
        const V t3219 = t2405 + t2412;
        // spectrum block of 7, multiplier 4
        const V t3220 = c[2] * t3219;
        const V t3221 = c[0] * t3219;
        const V t3222 = c[1] * t3219;
        const V t3223 = t3216 - t3219;
        const V t3224 = t2399 + t3220;
        const V t3225 = c[0] * t3216;
        const V t3226 = t3221 - t3217;
        const V t3227 = t3222 + t3218;
        const V t3228 = t3223 + t3212;
        const V t3229 = t3228 - t2399;
        const V t3230 = t3224 + t3225;
        const V t3231 = t3230 + t3213;
        const V t3232 = t3226 + t3214;
        const V t3233 = t3232 - t2399;
        const V t3234 = t3227 - t3215;
        const V t3235 = t3234 - t2399;
        // spectrum block of 29, multiplier 2
        const V t3236 = c[19] * t2431;
        const V t3237 = t2439 + t3236;
        const V t3238 = t2427 + t2420;
        // spectrum block of 7, multiplier 4
        const V t3239 = c[5] * t3238;
        const V t3240 = c[3] * t3238;
        const V t3241 = c[4] * t3238;
        // spectrum block of 29, multiplier 2
        const V t3242 = t2413 - t2406;
        // spectrum block of 7, multiplier 4
        const V t3243 = c[4] * t3242;
        const V t3244 = c[5] * t3242;
        const V t3245 = c[3] * t3242;
        const V t3246 = t3239 - t3243;
        const V t3247 = c[3] * t3237;
        const V t3248 = t3246 - t3247;
        const V t3249 = t3244 + t3240;
        const V t3250 = c[4] * t3237;
        const V t3251 = t3250 - t3249;
        const V t3252 = t3245 + t3241;
        const V t3253 = c[5] * t3237;
        const V t3254 = t3252 + t3253;
        // spectrum block of 29, multiplier 2
        const V t3255 = t2369 + t2362;
        // spectrum block of 7, multiplier 4
        const V t3256 = c[4] * t3255;
        const V t3257 = c[5] * t3255;
        const V t3258 = c[3] * t3255;
        // spectrum block of 29, multiplier 2
        const V t3259 = t2383 + t2376;
        // spectrum block of 7, multiplier 4
        const V t3260 = c[5] * t3259;
        const V t3261 = c[3] * t3259;
        const V t3262 = c[4] * t3259;
        // spectrum block of 29, multiplier 2
        const V t3263 = c[18] * t2387;
        const V t3264 = t2395 - t3263;
        // spectrum block of 7, multiplier 4
        const V t3265 = t3260 - t3256;
        const V t3266 = c[3] * t3264;
        const V t3267 = t3265 + t3266;
        const V t3268 = t3257 + t3261;
        const V t3269 = c[4] * t3264;
        const V t3270 = t3268 + t3269;
        const V t3271 = t3258 + t3262;
        const V t3272 = c[5] * t3264;
        const V t3273 = t3272 - t3271;
        // spectrum block of 7, multiplier 4
        const V t3274 = t2936 - t3088;
        // spectrum block of 7, multiplier 4
        const V t3275 = t3052 - t3069;
        // spectrum block of 2
        const V t3276 = t3274 + t3275;
        const V t3277 = t3274 - t3275;
        // spectrum block of 7, multiplier 4
        const V t3278 = t2936 + t3088;
        // spectrum block of 7, multiplier 4
        const V t3279 = t3052 + t3069;
        // spectrum block of 2
        const V t3280 = t3278 + t3279;
        const V t3281 = t3278 - t3279;
        // complex block of 7, multiplier 4
        const V t3282 = t3016 + t3017;
        const V t3283 = t2972 - t2962;
        const V t3284 = t3282 + t3283;
        const V t3285 = t3282 - t3283;
        const V t3286 = t2969 + t2960;
        const V t3287 = t3020 - t3009;
        const V t3288 = t3286 - t3287;
        const V t3289 = t3286 + t3287;
        // spectrum block of 7, multiplier 4
        const V t3290 = t3115 - t3267;
        // spectrum block of 7, multiplier 4
        const V t3291 = t3231 + t3248;
        // spectrum block of 2
        const V t3292 = t3290 - t3291;
        const V t3293 = t3290 + t3291;
        // spectrum block of 7, multiplier 4
        const V t3294 = t3115 + t3267;
        // spectrum block of 7, multiplier 4
        const V t3295 = t3248 - t3231;
        // spectrum block of 2
        const V t3296 = t3294 + t3295;
        const V t3297 = t3294 - t3295;
        // complex block of 7, multiplier 4
        const V t3298 = t3196 - t3195;
        const V t3299 = t3151 - t3141;
        const V t3300 = t3298 + t3299;
        const V t3301 = t3298 - t3299;
        const V t3302 = t3148 + t3139;
        const V t3303 = t3199 - t3188;
        const V t3304 = t3302 - t3303;
        const V t3305 = t3302 + t3303;
        // spectrum block of 2
        const V t3306 = t3276 + t3288;
        // spectrum block of 2
        const V t3307 = t3292 + t3304;
        // spectrum block of 2
        const V t3308 = t3306 + t3307;
        io.re(25, t3308);
        const V t3309 = t3306 - t3307;
        io.re(34, t3309);
        // spectrum block of 2
        const V t3310 = t3276 - t3288;
        // spectrum block of 2
        const V t3311 = t3292 - t3304;
        // spectrum block of 2
        const V t3312 = t3310 + t3311;
        io.re(26, t3312);
        const V t3313 = t3310 - t3311;
        io.re(33, t3313);
        // spectrum block of 2
        const V t3314 = t3277 + t3284;
        // spectrum block of 2
        const V t3315 = t3293 + t3300;
        // spectrum block of 2
        const V t3316 = t3314 + t3315;
        io.re(57, t3316);
        const V t3317 = t3314 - t3315;
        io.re(2, t3317);
        // spectrum block of 2
        const V t3318 = t3277 - t3284;
        // spectrum block of 2
        const V t3319 = t3293 - t3300;
        // spectrum block of 2
        const V t3320 = t3318 + t3319;
        io.re(29, t3320);
        const V t3321 = t3318 - t3319;
        io.re(30, t3321);
        // spectrum block of 2
        const V t3322 = t3280 + t3289;
        // spectrum block of 2
        const V t3323 = t3296 + t3305;
        // spectrum block of 2
        const V t3324 = t3322 + t3323;
        io.re(21, t3324);
        const V t3325 = t3322 - t3323;
        io.re(38, t3325);
        // spectrum block of 2
        const V t3326 = t3280 - t3289;
        // spectrum block of 2
        const V t3327 = t3296 - t3305;
        // spectrum block of 2
        const V t3328 = t3326 + t3327;
        io.re(45, t3328);
        const V t3329 = t3326 - t3327;
        io.re(14, t3329);
        // spectrum block of 2
        const V t3330 = t3281 + t3285;
        // spectrum block of 2
        const V t3331 = t3297 + t3301;
        // spectrum block of 2
        const V t3332 = t3330 + t3331;
        io.re(48, t3332);
        const V t3333 = t3330 - t3331;
        io.re(11, t3333);
        // spectrum block of 2
        const V t3334 = t3281 - t3285;
        // spectrum block of 2
        const V t3335 = t3297 - t3301;
        // spectrum block of 2
        const V t3336 = t3334 + t3335;
        io.re(16, t3336);
        const V t3337 = t3334 - t3335;
        io.re(43, t3337);
        // spectrum block of 7, multiplier 4
        const V t3338 = t2938 + t3091;
        // spectrum block of 7, multiplier 4
        const V t3339 = t3054 - t3072;
        // spectrum block of 2
        const V t3340 = t3338 + t3339;
        const V t3341 = t3338 - t3339;
        // spectrum block of 7, multiplier 4
        const V t3342 = t2938 - t3091;
        // spectrum block of 7, multiplier 4
        const V t3343 = t3054 + t3072;
        // spectrum block of 2
        const V t3344 = t3342 + t3343;
        const V t3345 = t3342 - t3343;
        // complex block of 7, multiplier 4
        const V t3346 = t3023 - t3007;
        const V t3347 = t2979 + t2963;
        const V t3348 = t3346 + t3347;
        const V t3349 = t3346 - t3347;
        const V t3350 = t2975 + t2976;
        const V t3351 = t3026 + t3010;
        const V t3352 = t3350 - t3351;
        const V t3353 = t3350 + t3351;
        // spectrum block of 7, multiplier 4
        const V t3354 = t3117 + t3270;
        // spectrum block of 7, multiplier 4
        const V t3355 = t3233 - t3251;
        // spectrum block of 2
        const V t3356 = t3354 + t3355;
        const V t3357 = t3354 - t3355;
        // spectrum block of 7, multiplier 4
        const V t3358 = t3117 - t3270;
        // spectrum block of 7, multiplier 4
        const V t3359 = t3233 + t3251;
        // spectrum block of 2
        const V t3360 = t3358 + t3359;
        const V t3361 = t3358 - t3359;
        // complex block of 7, multiplier 4
        const V t3362 = t3202 - t3186;
        const V t3363 = t3158 + t3142;
        const V t3364 = t3362 + t3363;
        const V t3365 = t3362 - t3363;
        const V t3366 = t3154 + t3155;
        const V t3367 = t3205 + t3189;
        const V t3368 = t3366 - t3367;
        const V t3369 = t3366 + t3367;
        // spectrum block of 2
        const V t3370 = t3344 + t3353;
        // spectrum block of 2
        const V t3371 = t3360 + t3369;
        // spectrum block of 2
        const V t3372 = t3370 + t3371;
        io.re(20, t3372);
        const V t3373 = t3370 - t3371;
        io.re(39, t3373);
        // spectrum block of 2
        const V t3374 = t3344 - t3353;
        // spectrum block of 2
        const V t3375 = t3360 - t3369;
        // spectrum block of 2
        const V t3376 = t3374 + t3375;
        io.re(3, t3376);
        const V t3377 = t3374 - t3375;
        io.re(56, t3377);
        // spectrum block of 2
        const V t3378 = t3345 + t3349;
        // spectrum block of 2
        const V t3379 = t3361 + t3365;
        // spectrum block of 2
        const V t3380 = t3378 + t3379;
        io.re(28, t3380);
        const V t3381 = t3378 - t3379;
        io.re(31, t3381);
        // spectrum block of 2
        const V t3382 = t3345 - t3349;
        // spectrum block of 2
        const V t3383 = t3361 - t3365;
        // spectrum block of 2
        const V t3384 = t3382 + t3383;
        io.re(19, t3384);
        const V t3385 = t3382 - t3383;
        io.re(40, t3385);
        // spectrum block of 2
        const V t3386 = t3340 + t3352;
        // spectrum block of 2
        const V t3387 = t3356 + t3368;
        // spectrum block of 2
        const V t3388 = t3386 + t3387;
        io.re(36, t3388);
        const V t3389 = t3386 - t3387;
        io.re(23, t3389);
        // spectrum block of 2
        const V t3390 = t3340 - t3352;
        // spectrum block of 2
        const V t3391 = t3356 - t3368;
        // spectrum block of 2
        const V t3392 = t3390 + t3391;
        io.re(41, t3392);
        const V t3393 = t3390 - t3391;
        io.re(18, t3393);
        // spectrum block of 2
        const V t3394 = t3341 + t3348;
        // spectrum block of 2
        const V t3395 = t3357 + t3364;
        // spectrum block of 2
        const V t3396 = t3394 + t3395;
        io.re(12, t3396);
        const V t3397 = t3394 - t3395;
        io.re(47, t3397);
        // spectrum block of 2
        const V t3398 = t3341 - t3348;
        // spectrum block of 2
        const V t3399 = t3357 - t3364;
        // spectrum block of 2
        const V t3400 = t3398 + t3399;
        io.re(5, t3400);
        const V t3401 = t3398 - t3399;
        io.re(54, t3401);
        // spectrum block of 7, multiplier 4
        const V t3402 = t2940 - t3094;
        // spectrum block of 7, multiplier 4
        const V t3403 = t3056 - t3075;
        // spectrum block of 2
        const V t3404 = t3402 + t3403;
        const V t3405 = t3402 - t3403;
        // spectrum block of 7, multiplier 4
        const V t3406 = t2940 + t3094;
        // spectrum block of 7, multiplier 4
        const V t3407 = t3056 + t3075;
        // spectrum block of 2
        const V t3408 = t3406 + t3407;
        const V t3409 = t3406 - t3407;
        // complex block of 7, multiplier 4
        const V t3410 = t3029 - t3007;
        const V t3411 = t2986 - t2964;
        const V t3412 = t3410 + t3411;
        const V t3413 = t3410 - t3411;
        const V t3414 = t2982 - t2983;
        const V t3415 = t3032 - t3011;
        const V t3416 = t3414 - t3415;
        const V t3417 = t3414 + t3415;
        // spectrum block of 7, multiplier 4
        const V t3418 = t3119 - t3273;
        // spectrum block of 7, multiplier 4
        const V t3419 = t3235 + t3254;
        // spectrum block of 2
        const V t3420 = t3418 + t3419;
        const V t3421 = t3418 - t3419;
        // spectrum block of 7, multiplier 4
        const V t3422 = t3119 + t3273;
        // spectrum block of 7, multiplier 4
        const V t3423 = t3235 - t3254;
        // spectrum block of 2
        const V t3424 = t3422 + t3423;
        const V t3425 = t3422 - t3423;
        // complex block of 7, multiplier 4
        const V t3426 = t3208 - t3186;
        const V t3427 = t3165 - t3143;
        const V t3428 = t3426 + t3427;
        const V t3429 = t3426 - t3427;
        const V t3430 = t3161 - t3162;
        const V t3431 = t3211 - t3190;
        const V t3432 = t3430 - t3431;
        const V t3433 = t3430 + t3431;
        // spectrum block of 2
        const V t3434 = t3408 + t3417;
        // spectrum block of 2
        const V t3435 = t3424 + t3433;
        // spectrum block of 2
        const V t3436 = t3434 + t3435;
        io.re(7, t3436);
        const V t3437 = t3434 - t3435;
        io.re(52, t3437);
        // spectrum block of 2
        const V t3438 = t3408 - t3417;
        // spectrum block of 2
        const V t3439 = t3424 - t3433;
        // spectrum block of 2
        const V t3440 = t3438 + t3439;
        io.re(17, t3440);
        const V t3441 = t3438 - t3439;
        io.re(42, t3441);
        // spectrum block of 2
        const V t3442 = t3409 + t3413;
        // spectrum block of 2
        const V t3443 = t3425 + t3429;
        // spectrum block of 2
        const V t3444 = t3442 + t3443;
        io.re(46, t3444);
        const V t3445 = t3442 - t3443;
        io.re(13, t3445);
        // spectrum block of 2
        const V t3446 = t3409 - t3413;
        // spectrum block of 2
        const V t3447 = t3425 - t3429;
        // spectrum block of 2
        const V t3448 = t3446 + t3447;
        io.re(9, t3448);
        const V t3449 = t3446 - t3447;
        io.re(50, t3449);
        // spectrum block of 2
        const V t3450 = t3404 + t3416;
        // spectrum block of 2
        const V t3451 = t3420 + t3432;
        // spectrum block of 2
        const V t3452 = t3450 + t3451;
        io.re(22, t3452);
        const V t3453 = t3450 - t3451;
        io.re(37, t3453);
        // spectrum block of 2
        const V t3454 = t3404 - t3416;
        // spectrum block of 2
        const V t3455 = t3420 - t3432;
        // spectrum block of 2
        const V t3456 = t3454 + t3455;
        io.re(51, t3456);
        const V t3457 = t3454 - t3455;
        io.re(8, t3457);
        // spectrum block of 2
        const V t3458 = t3405 + t3412;
        // spectrum block of 2
        const V t3459 = t3421 + t3428;
        // spectrum block of 2
        const V t3460 = t3458 + t3459;
        io.re(49, t3460);
        const V t3461 = t3458 - t3459;
        io.re(10, t3461);
        // spectrum block of 2
        const V t3462 = t3405 - t3412;
        // spectrum block of 2
        const V t3463 = t3421 - t3428;
        // spectrum block of 2
        const V t3464 = t3462 + t3463;
        io.re(53, t3464);
        const V t3465 = t3462 - t3463;
        io.re(6, t3465);
        // complex block of 7, multiplier 4
        const V t3466 = t3013 + t3007;
        // spectrum block of 2
        const V t3467 = t2934 - t3050;
        // spectrum block of 2
        const V t3468 = t3467 - t3466;
        const V t3469 = t3467 + t3466;
        // complex block of 7, multiplier 4
        const V t3470 = t3192 - t3186;
        // spectrum block of 2
        const V t3471 = t3113 - t3229;
        // spectrum block of 2
        const V t3472 = t3471 + t3470;
        const V t3473 = t3471 - t3470;
        // spectrum block of 2
        const V t3474 = t3469 + t3473;
        io.re(27, t3474);
        const V t3475 = t3469 - t3473;
        io.re(32, t3475);
        // spectrum block of 2
        const V t3476 = t3468 + t3472;
        io.re(35, t3476);
        const V t3477 = t3468 - t3472;
        io.re(24, t3477);
        // complex block of 7, multiplier 4
        const V t3478 = t2966 + t2960;
        // spectrum block of 2
        const V t3479 = t2934 + t3050;
        // spectrum block of 2
        const V t3480 = t3479 + t3478;
        const V t3481 = t3479 - t3478;
        // complex block of 7, multiplier 4
        const V t3482 = t3145 + t3139;
        // spectrum block of 2
        const V t3483 = t3113 + t3229;
        // spectrum block of 2
        const V t3484 = t3483 + t3482;
        const V t3485 = t3483 - t3482;
        // spectrum block of 2
        const V t3486 = t3480 + t3484;
        io.re(15, t3486);
        const V t3487 = t3480 - t3484;
        io.re(44, t3487);
        // spectrum block of 2
        const V t3488 = t3481 + t3485;
        io.re(4, t3488);
        const V t3489 = t3481 - t3485;
        io.re(55, t3489);
        // spectrum block of 29, multiplier 2
        const V t3490 = t2284 + t2509;
        // spectrum block of 29, multiplier 2
        const V t3491 = t2915 + t2354;
        // spectrum block of 2
        const V t3492 = t3490 + t3491;
        io.re(1, t3492);
        const V t3493 = t3490 - t3491;
        io.re(58, t3493);
        // complex block of 59
        const V t3494 = x0i - t1704;
        const V t3495 = c[60] * t1056;
        const V t3496 = c[61] * t1053;
        const V t3497 = t3496 + t3495;
        const V t3498 = c[70] * t1107;
        const V t3499 = c[71] * t1027;
        const V t3500 = t3499 + t3498;
        const V t3501 = c[72] * t1106;
        const V t3502 = c[73] * t1028;
        const V t3503 = t3501 - t3502;
        const V t3504 = c[62] * t1118;
        const V t3505 = c[74] * t1054;
        const V t3506 = t3505 + t3504;
        // real block of 2
        const V t3507 = t3500 - t3497;
        // real block of 2
        const V t3508 = t3503 + t3506;
        // real block of 7, multiplier 2
        const V t3509 = t3508 + t3507;
        const V t3510 = t3508 - t3507;
        // real block of 2
        const V t3511 = t3500 + t3497;
        // real block of 2
        const V t3512 = t3503 - t3506;
        // real block of 7, multiplier 2
        const V t3513 = t3512 + t3511;
        const V t3514 = t3512 - t3511;
        // complex block of 59
        const V t3515 = c[75] * t1099;
        const V t3516 = c[76] * t1045;
        const V t3517 = t3515 - t3516;
        const V t3518 = c[67] * t1117;
        const V t3519 = c[77] * t1075;
        const V t3520 = t3518 - t3519;
        // real block of 2
        const V t3521 = t3517 + t3520;
        const V t3522 = t3517 - t3520;
        // complex block of 59
        const V t3523 = c[78] * t1098;
        const V t3524 = c[79] * t1046;
        const V t3525 = t3524 - t3523;
        const V t3526 = c[68] * t1127;
        const V t3527 = c[69] * t1077;
        const V t3528 = t3527 + t3526;
        // real block of 2
        const V t3529 = t3525 + t3528;
        const V t3530 = t3525 - t3528;
        // real block of 7, multiplier 2
        const V t3531 = t3529 + t3521;
        const V t3532 = c[0] * t3531;
        const V t3533 = t3529 - t3521;
        // real block of 7, multiplier 2
        const V t3534 = t3530 + t3522;
        const V t3535 = c[0] * t3534;
        const V t3536 = t3530 - t3522;
        // complex block of 59
        const V t3537 = c[59] * t1139;
        const V t3538 = t1049 + t3537;
        const V t3539 = t1081 - t1020;
        // real block of 2
        const V t3540 = t3539 + t3538;
        const V t3541 = t3539 - t3538;
        // complex block of 59
        const V t3542 = c[66] * t1126;
        const V t3543 = t3542 - t1069;
        const V t3544 = t1037 + t1090;
        // real block of 2
        const V t3545 = t3544 + t3543;
        const V t3546 = t3544 - t3543;
        // complex block of 59
        const V t3547 = t1087 - t1034;
        const V t3548 = c[64] * t1140;
        const V t3549 = t1066 + t3548;
        // real block of 2
        const V t3550 = t3547 - t3549;
        const V t3551 = t3547 + t3549;
        // real block of 7, multiplier 2
        const V t3552 = t3545 + t3550;
        const V t3553 = c[0] * t3552;
        const V t3554 = c[1] * t3552;
        const V t3555 = c[2] * t3552;
        const V t3556 = t3545 - t3550;
        // real block of 7, multiplier 2
        const V t3557 = t3546 + t3551;
        const V t3558 = c[0] * t3557;
        const V t3559 = c[1] * t3557;
        const V t3560 = c[2] * t3557;
        const V t3561 = t3546 - t3551;
        // real block of 7, multiplier 2
        const V t3562 = t3552 + t3531;
        const V t3563 = t3562 + t3509;
        const V t3564 = t3563 + t3540;
        // spectrum block of 29, multiplier 2
        const V t3565 = c[32] * t3564;
        // real block of 7, multiplier 2
        const V t3566 = t3540 - t3553;
        const V t3567 = c[1] * t3531;
        const V t3568 = t3566 - t3567;
        const V t3569 = c[2] * t3509;
        const V t3570 = t3568 + t3569;
        // spectrum block of 29, multiplier 2
        const V t3571 = c[6] * t3570;
        const V t3572 = c[7] * t3570;
        // real block of 7, multiplier 2
        const V t3573 = c[5] * t3556;
        const V t3574 = c[3] * t3533;
        const V t3575 = t3573 + t3574;
        const V t3576 = c[4] * t3510;
        const V t3577 = t3575 + t3576;
        // spectrum block of 29, multiplier 2
        const V t3578 = c[7] * t3577;
        const V t3579 = c[6] * t3577;
        // real block of 7, multiplier 2
        const V t3580 = t3540 - t3554;
        const V t3581 = c[2] * t3531;
        const V t3582 = t3580 + t3581;
        const V t3583 = c[0] * t3509;
        const V t3584 = t3582 - t3583;
        // spectrum block of 29, multiplier 2
        const V t3585 = c[14] * t3584;
        const V t3586 = c[15] * t3584;
        // real block of 7, multiplier 2
        const V t3587 = c[3] * t3556;
        const V t3588 = c[4] * t3533;
        const V t3589 = t3587 + t3588;
        const V t3590 = c[5] * t3510;
        const V t3591 = t3589 - t3590;
        // spectrum block of 29, multiplier 2
        const V t3592 = c[15] * t3591;
        const V t3593 = c[14] * t3591;
        // real block of 7, multiplier 2
        const V t3594 = t3555 - t3532;
        const V t3595 = c[1] * t3509;
        const V t3596 = t3594 - t3595;
        const V t3597 = t3596 + t3540;
        // spectrum block of 29, multiplier 2
        const V t3598 = c[25] * t3597;
        // real block of 7, multiplier 2
        const V t3599 = c[4] * t3556;
        const V t3600 = c[5] * t3533;
        const V t3601 = t3599 - t3600;
        const V t3602 = c[3] * t3510;
        const V t3603 = t3601 - t3602;
        // spectrum block of 29, multiplier 2
        const V t3604 = c[18] * t3603;
        const V t3605 = c[25] * t3603;
        // real block of 7, multiplier 2
        const V t3606 = t3557 + t3534;
        const V t3607 = t3606 + t3513;
        const V t3608 = t3607 + t3541;
        // spectrum block of 29, multiplier 2
        const V t3609 = c[33] * t3608;
        // real block of 7, multiplier 2
        const V t3610 = t3541 - t3558;
        const V t3611 = c[1] * t3534;
        const V t3612 = t3610 - t3611;
        const V t3613 = c[2] * t3513;
        const V t3614 = t3612 + t3613;
        // spectrum block of 29, multiplier 2
        const V t3615 = c[8] * t3614;
        const V t3616 = c[9] * t3614;
        // real block of 7, multiplier 2
        const V t3617 = c[5] * t3561;
        const V t3618 = c[3] * t3536;
        const V t3619 = t3617 + t3618;
        const V t3620 = c[4] * t3514;
        const V t3621 = t3619 + t3620;
        // spectrum block of 29, multiplier 2
        const V t3622 = c[9] * t3621;
        const V t3623 = c[8] * t3621;
        // real block of 7, multiplier 2
        const V t3624 = t3541 - t3559;
        const V t3625 = c[2] * t3534;
        const V t3626 = t3624 + t3625;
        const V t3627 = c[0] * t3513;
        const V t3628 = t3626 - t3627;
        // spectrum block of 29, multiplier 2
        const V t3629 = c[16] * t3628;
        const V t3630 = c[17] * t3628;
        // real block of 7, multiplier 2
        const V t3631 = c[3] * t3561;
        const V t3632 = c[4] * t3536;
        const V t3633 = t3631 + t3632;
        const V t3634 = c[5] * t3514;
        const V t3635 = t3633 - t3634;
        // spectrum block of 29, multiplier 2
        const V t3636 = c[17] * t3635;
        const V t3637 = c[16] * t3635;
        // real block of 7, multiplier 2
        const V t3638 = t3560 - t3535;
        const V t3639 = c[1] * t3513;
        const V t3640 = t3638 - t3639;
        const V t3641 = t3640 + t3541;
        // spectrum block of 29, multiplier 2
        const V t3642 = c[24] * t3641;
        // real block of 7, multiplier 2
        const V t3643 = c[4] * t3561;
        const V t3644 = c[5] * t3536;
        const V t3645 = t3643 - t3644;
        const V t3646 = c[3] * t3514;
        const V t3647 = t3645 - t3646;
        // spectrum block of 29, multiplier 2
        const V t3648 = c[19] * t3647;
        const V t3649 = c[24] * t3647;
        // complex block of 59
        const V t3650 = t1872 + t1933;
        const V t3651 = c[41] * t1991;
        const V t3652 = t3651 - t1901;
        // real block of 2
        const V t3653 = t3650 + t3652;
        const V t3654 = t3650 - t3652;
        // complex block of 59
        const V t3655 = c[42] * t1970;
        const V t3656 = c[80] * t1906;
        const V t3657 = t3655 - t3656;
        const V t3658 = c[81] * t1958;
        const V t3659 = c[82] * t1880;
        const V t3660 = t3659 + t3658;
        const V t3661 = c[83] * t1959;
        const V t3662 = c[84] * t1879;
        const V t3663 = t3661 - t3662;
        const V t3664 = c[43] * t1908;
        const V t3665 = c[44] * t1905;
        const V t3666 = t3665 + t3664;
        // real block of 2
        const V t3667 = t3663 + t3666;
        // real block of 2
        const V t3668 = t3660 + t3657;
        // real block of 7, multiplier 2
        const V t3669 = t3668 + t3667;
        const V t3670 = t3668 - t3667;
        // real block of 2
        const V t3671 = t3663 - t3666;
        // real block of 2
        const V t3672 = t3660 - t3657;
        // real block of 7, multiplier 2
        const V t3673 = t3672 + t3671;
        const V t3674 = t3672 - t3671;
        // complex block of 59
        const V t3675 = c[46] * t1992;
        const V t3676 = t1918 + t3675;
        const V t3677 = t1886 + t1939;
        // real block of 2
        const V t3678 = t3676 - t3677;
        const V t3679 = t3677 + t3676;
        // complex block of 59
        const V t3680 = t1889 + t1942;
        const V t3681 = c[48] * t1978;
        const V t3682 = t1921 + t3681;
        // real block of 2
        const V t3683 = t3680 - t3682;
        const V t3684 = t3680 + t3682;
        // real block of 7, multiplier 2
        const V t3685 = t3683 + t3678;
        const V t3686 = c[0] * t3685;
        const V t3687 = c[1] * t3685;
        const V t3688 = c[2] * t3685;
        const V t3689 = t3683 - t3678;
        // real block of 7, multiplier 2
        const V t3690 = t3684 - t3679;
        const V t3691 = c[0] * t3690;
        const V t3692 = c[1] * t3690;
        const V t3693 = c[2] * t3690;
        const V t3694 = t3684 + t3679;
        // complex block of 59
        const V t3695 = c[50] * t1979;
        const V t3696 = c[51] * t1929;
        const V t3697 = t3696 + t3695;
        const V t3698 = c[85] * t1950;
        const V t3699 = c[86] * t1898;
        const V t3700 = t3699 - t3698;
        // real block of 2
        const V t3701 = t3700 + t3697;
        const V t3702 = t3700 - t3697;
        // complex block of 59
        const V t3703 = c[49] * t1969;
        const V t3704 = c[87] * t1927;
        const V t3705 = t3704 + t3703;
        const V t3706 = c[88] * t1951;
        const V t3707 = c[89] * t1897;
        const V t3708 = t3707 + t3706;
        // real block of 2
        const V t3709 = t3708 + t3705;
        const V t3710 = t3708 - t3705;
        // real block of 7, multiplier 2
        const V t3711 = t3701 + t3709;
        const V t3712 = c[0] * t3711;
        const V t3713 = t3701 - t3709;
        // real block of 7, multiplier 2
        const V t3714 = t3702 + t3710;
        const V t3715 = c[0] * t3714;
        const V t3716 = t3702 - t3710;
        // real block of 7, multiplier 2
        const V t3717 = t3685 + t3711;
        const V t3718 = t3717 + t3669;
        const V t3719 = t3718 + t3653;
        // spectrum block of 29, multiplier 2
        const V t3720 = c[32] * t3719;
        // real block of 7, multiplier 2
        const V t3721 = t3653 - t3686;
        const V t3722 = c[1] * t3711;
        const V t3723 = t3721 - t3722;
        const V t3724 = c[2] * t3669;
        const V t3725 = t3723 + t3724;
        // spectrum block of 29, multiplier 2
        const V t3726 = c[6] * t3725;
        const V t3727 = c[7] * t3725;
        // real block of 7, multiplier 2
        const V t3728 = c[5] * t3689;
        const V t3729 = c[3] * t3713;
        const V t3730 = t3728 + t3729;
        const V t3731 = c[4] * t3670;
        const V t3732 = t3730 + t3731;
        // spectrum block of 29, multiplier 2
        const V t3733 = c[7] * t3732;
        const V t3734 = c[6] * t3732;
        // real block of 7, multiplier 2
        const V t3735 = t3653 - t3687;
        const V t3736 = c[2] * t3711;
        const V t3737 = t3735 + t3736;
        const V t3738 = c[0] * t3669;
        const V t3739 = t3737 - t3738;
        // spectrum block of 29, multiplier 2
        const V t3740 = c[14] * t3739;
        const V t3741 = c[15] * t3739;
        // real block of 7, multiplier 2
        const V t3742 = c[3] * t3689;
        const V t3743 = c[4] * t3713;
        const V t3744 = t3742 + t3743;
        const V t3745 = c[5] * t3670;
        const V t3746 = t3744 - t3745;
        // spectrum block of 29, multiplier 2
        const V t3747 = c[15] * t3746;
        const V t3748 = c[14] * t3746;
        // real block of 7, multiplier 2
        const V t3749 = t3688 - t3712;
        const V t3750 = c[1] * t3669;
        const V t3751 = t3749 - t3750;
        const V t3752 = t3751 + t3653;
        // spectrum block of 29, multiplier 2
        const V t3753 = c[25] * t3752;
        // real block of 7, multiplier 2
        const V t3754 = c[4] * t3689;
        const V t3755 = c[5] * t3713;
        const V t3756 = t3754 - t3755;
        const V t3757 = c[3] * t3670;
        const V t3758 = t3756 - t3757;
        // spectrum block of 29, multiplier 2
        const V t3759 = c[18] * t3758;
        const V t3760 = c[25] * t3758;
        // real block of 7, multiplier 2
        const V t3761 = t3690 + t3714;
        const V t3762 = t3761 + t3673;
        const V t3763 = t3762 + t3654;
        // spectrum block of 29, multiplier 2
        const V t3764 = c[33] * t3763;
        // real block of 7, multiplier 2
        const V t3765 = t3654 - t3691;
        const V t3766 = c[1] * t3714;
        const V t3767 = t3765 - t3766;
        const V t3768 = c[2] * t3673;
        const V t3769 = t3767 + t3768;
        // spectrum block of 29, multiplier 2
        const V t3770 = c[8] * t3769;
        const V t3771 = c[9] * t3769;
        // real block of 7, multiplier 2
        const V t3772 = c[5] * t3694;
        const V t3773 = c[3] * t3716;
        const V t3774 = t3772 + t3773;
        const V t3775 = c[4] * t3674;
        const V t3776 = t3774 + t3775;
        // spectrum block of 29, multiplier 2
        const V t3777 = c[9] * t3776;
        const V t3778 = c[8] * t3776;
        // real block of 7, multiplier 2
        const V t3779 = t3654 - t3692;
        const V t3780 = c[2] * t3714;
        const V t3781 = t3779 + t3780;
        const V t3782 = c[0] * t3673;
        const V t3783 = t3781 - t3782;
        // spectrum block of 29, multiplier 2
        const V t3784 = c[16] * t3783;
        const V t3785 = c[17] * t3783;
        // real block of 7, multiplier 2
        const V t3786 = c[3] * t3694;
        const V t3787 = c[4] * t3716;
        const V t3788 = t3786 + t3787;
        const V t3789 = c[5] * t3674;
        const V t3790 = t3788 - t3789;
        // spectrum block of 29, multiplier 2
        const V t3791 = c[17] * t3790;
        const V t3792 = c[16] * t3790;
        // real block of 7, multiplier 2
        const V t3793 = t3693 - t3715;
        const V t3794 = c[1] * t3673;
        const V t3795 = t3793 - t3794;
        const V t3796 = t3795 + t3654;
        // spectrum block of 29, multiplier 2
        const V t3797 = c[24] * t3796;
        // real block of 7, multiplier 2
        const V t3798 = c[4] * t3694;
        const V t3799 = c[5] * t3716;
        const V t3800 = t3798 - t3799;
        const V t3801 = c[3] * t3674;
        const V t3802 = t3800 - t3801;
        // spectrum block of 29, multiplier 2
        const V t3803 = c[19] * t3802;
        const V t3804 = c[24] * t3802;
        // complex block of 59
        const V t3805 = t1934 - t1873;
        const V t3806 = t1890 - t1943;
        const V t3807 = t1887 - t1940;
        // real block of 7
        const V t3808 = t3807 - t3806;
        const V t3809 = t3806 + t3807;
        // complex block of 59
        const V t3810 = c[85] * t1898;
        const V t3811 = c[86] * t1950;
        const V t3812 = t3811 + t3810;
        const V t3813 = c[88] * t1897;
        const V t3814 = c[89] * t1951;
        const V t3815 = t3813 - t3814;
        // real block of 7
        const V t3816 = t3812 - t3815;
        const V t3817 = t3808 + t3816;
        const V t3818 = c[0] * t3816;
        const V t3819 = c[1] * t3816;
        const V t3820 = c[2] * t3816;
        const V t3821 = t3812 + t3815;
        const V t3822 = c[5] * t3821;
        const V t3823 = c[3] * t3821;
        const V t3824 = c[4] * t3821;
        const V t3825 = c[2] * t3808;
        const V t3826 = c[4] * t3809;
        const V t3827 = c[0] * t3808;
        const V t3828 = t3805 - t3827;
        const V t3829 = c[5] * t3809;
        const V t3830 = c[1] * t3808;
        const V t3831 = t3805 - t3830;
        const V t3832 = c[3] * t3809;
        // complex block of 59
        const V t3833 = c[80] * t1970;
        const V t3834 = t3833 + t1909;
        const V t3835 = c[45] * t1992;
        const V t3836 = t1919 - t3835;
        const V t3837 = c[87] * t1969;
        const V t3838 = t1928 - t3837;
        // real block of 7
        const V t3839 = t3838 + t3836;
        const V t3840 = t3838 - t3836;
        // complex block of 59
        const V t3841 = t1980 - t1930;
        // real block of 7
        const V t3842 = t1912 - t3841;
        const V t3843 = t3841 + t1912;
        const V t3844 = c[0] * t3842;
        const V t3845 = c[1] * t3842;
        // complex block of 59
        const V t3846 = c[47] * t1978;
        const V t3847 = t1922 - t3846;
        const V t3848 = c[40] * t1991;
        const V t3849 = t3848 + t1902;
        // real block of 7
        const V t3850 = t3847 + t3849;
        const V t3851 = t3849 - t3847;
        const V t3852 = c[1] * t3851;
        const V t3853 = c[2] * t3851;
        const V t3854 = c[0] * t3851;
        const V t3855 = t3842 + t3839;
        const V t3856 = c[2] * t3842;
        const V t3857 = c[0] * t3839;
        const V t3858 = t3856 - t3857;
        const V t3859 = c[4] * t3843;
        const V t3860 = c[5] * t3840;
        const V t3861 = t3859 + t3860;
        const V t3862 = c[3] * t3850;
        const V t3863 = t3834 - t3844;
        const V t3864 = c[1] * t3839;
        const V t3865 = t3863 - t3864;
        const V t3866 = c[5] * t3843;
        const V t3867 = c[4] * t3850;
        const V t3868 = t3866 + t3867;
        const V t3869 = c[3] * t3840;
        const V t3870 = t3834 - t3845;
        const V t3871 = c[2] * t3839;
        const V t3872 = t3870 + t3871;
        const V t3873 = c[3] * t3843;
        const V t3874 = c[4] * t3840;
        const V t3875 = t3873 - t3874;
        const V t3876 = c[5] * t3850;
        // complex block of 59
        const V t3877 = c[81] * t1880;
        const V t3878 = c[82] * t1958;
        const V t3879 = t3877 - t3878;
        const V t3880 = c[83] * t1879;
        const V t3881 = c[84] * t1959;
        const V t3882 = t3881 + t3880;
        // real block of 7
        const V t3883 = t3879 + t3882;
        const V t3884 = c[1] * t3883;
        const V t3885 = c[2] * t3883;
        const V t3886 = c[0] * t3883;
        const V t3887 = t3882 - t3879;
        const V t3888 = c[4] * t3887;
        const V t3889 = c[5] * t3887;
        const V t3890 = t3817 - t3883;
        const V t3891 = t3890 + t3805;
        // spectrum block of 29, multiplier 2
        const V t3892 = c[30] * t3891;
        const V t3893 = c[31] * t3891;
        // real block of 7
        const V t3894 = t3825 - t3818;
        const V t3895 = t3894 + t3884;
        const V t3896 = c[3] * t3887;
        const V t3897 = t3826 + t3822;
        const V t3898 = t3897 + t3896;
        // real block of 7
        const V t3899 = t3858 - t3852;
        const V t3900 = t3899 + t3834;
        // skew block of 14
        const V t3901 = c[3] * t3900;
        const V t3902 = c[1] * t3900;
        // real block of 7
        const V t3903 = t3861 - t3862;
        // skew block of 14
        const V t3904 = c[1] * t3903;
        const V t3905 = c[3] * t3903;
        // real block of 7
        const V t3906 = t3895 + t3805;
        // skew block of 14
        const V t3907 = t3901 - t3904;
        // complex block of 2
        const V t3908 = t3906 + t3907;
        const V t3909 = t3906 - t3907;
        // skew block of 14
        const V t3910 = t3905 + t3902;
        // complex block of 2
        const V t3911 = t3898 + t3910;
        const V t3912 = t3910 - t3898;
        // real block of 7
        const V t3913 = t3828 - t3819;
        const V t3914 = t3913 - t3885;
        const V t3915 = t3829 - t3823;
        const V t3916 = t3915 - t3888;
        // real block of 7
        const V t3917 = t3865 + t3853;
        // skew block of 14
        const V t3918 = c[4] * t3917;
        const V t3919 = c[2] * t3917;
        // real block of 7
        const V t3920 = t3868 - t3869;
        // skew block of 14
        const V t3921 = c[2] * t3920;
        const V t3922 = c[4] * t3920;
        const V t3923 = t3918 - t3921;
        const V t3924 = t3922 + t3919;
        // complex block of 2
        const V t3925 = t3914 + t3923;
        // spectrum block of 29, multiplier 2
        const V t3926 = c[13] * t3925;
        const V t3927 = c[12] * t3925;
        // complex block of 2
        const V t3928 = t3916 + t3924;
        // spectrum block of 29, multiplier 2
        const V t3929 = c[12] * t3928;
        const V t3930 = c[13] * t3928;
        // complex block of 2
        const V t3931 = t3914 - t3923;
        // spectrum block of 29, multiplier 2
        const V t3932 = c[11] * t3931;
        const V t3933 = c[10] * t3931;
        // complex block of 2
        const V t3934 = t3924 - t3916;
        // spectrum block of 29, multiplier 2
        const V t3935 = c[10] * t3934;
        const V t3936 = c[11] * t3934;
        // real block of 7
        const V t3937 = t3831 + t3820;
        const V t3938 = t3937 + t3886;
        const V t3939 = t3832 + t3889;
        const V t3940 = t3939 - t3824;
        // real block of 7
        const V t3941 = t3872 - t3854;
        // skew block of 14
        const V t3942 = c[5] * t3941;
        const V t3943 = c[0] * t3941;
        // real block of 7
        const V t3944 = t3875 - t3876;
        // skew block of 14
        const V t3945 = c[0] * t3944;
        const V t3946 = c[5] * t3944;
        const V t3947 = t3942 - t3945;
        const V t3948 = t3946 + t3943;
        // complex block of 2
        const V t3949 = t3938 + t3947;
        // spectrum block of 29, multiplier 2
        const V t3950 = c[26] * t3949;
        const V t3951 = c[27] * t3949;
        // complex block of 2
        const V t3952 = t3940 + t3948;
        // spectrum block of 29, multiplier 2
        const V t3953 = c[27] * t3952;
        const V t3954 = c[26] * t3952;
        // complex block of 2
        const V t3955 = t3938 - t3947;
        // spectrum block of 29, multiplier 2
        const V t3956 = c[28] * t3955;
        const V t3957 = c[29] * t3955;
        // complex block of 2
        const V t3958 = t3948 - t3940;
        // spectrum block of 29, multiplier 2
        const V t3959 = c[29] * t3958;
        const V t3960 = c[28] * t3958;
        // real block of 7
        const V t3961 = t3855 + t3851;
        const V t3962 = t3961 + t3834;
        // spectrum block of 29, multiplier 2
        const V t3963 = c[31] * t3962;
        const V t3964 = c[30] * t3962;
        // complex block of 59
        const V t3965 = c[75] * t1045;
        const V t3966 = c[76] * t1099;
        const V t3967 = t3966 + t3965;
        const V t3968 = c[78] * t1046;
        const V t3969 = c[79] * t1098;
        const V t3970 = t3969 + t3968;
        const V t3971 = t1088 + t1035;
        const V t3972 = t1091 - t1038;
        // real block of 7
        const V t3973 = t3972 - t3971;
        const V t3974 = t3972 + t3971;
        // complex block of 59
        const V t3975 = t1082 + t1021;
        // real block of 7
        const V t3976 = t3970 - t3967;
        const V t3977 = t3973 + t3976;
        const V t3978 = c[0] * t3976;
        const V t3979 = c[1] * t3976;
        const V t3980 = c[2] * t3976;
        const V t3981 = t3970 + t3967;
        const V t3982 = c[5] * t3981;
        const V t3983 = c[3] * t3981;
        const V t3984 = c[4] * t3981;
        const V t3985 = c[2] * t3973;
        const V t3986 = c[4] * t3974;
        const V t3987 = c[0] * t3973;
        const V t3988 = t3975 + t3987;
        const V t3989 = c[5] * t3974;
        const V t3990 = c[1] * t3973;
        const V t3991 = t3975 + t3990;
        const V t3992 = c[3] * t3974;
        // complex block of 59
        const V t3993 = c[58] * t1139;
        const V t3994 = t1050 - t3993;
        const V t3995 = c[65] * t1126;
        const V t3996 = t3995 + t1070;
        // real block of 7
        const V t3997 = t3996 - t3994;
        // complex block of 59
        const V t3998 = c[77] * t1117;
        const V t3999 = t3998 + t1076;
        const V t4000 = c[63] * t1140;
        const V t4001 = t1067 - t4000;
        // real block of 7
        const V t4002 = t3999 - t4001;
        const V t4003 = t3999 + t4001;
        // complex block of 59
        const V t4004 = t1078 - t1128;
        // real block of 7
        const V t4005 = t4004 - t1059;
        const V t4006 = t4004 + t1059;
        const V t4007 = c[0] * t4005;
        const V t4008 = c[1] * t4005;
        // complex block of 59
        const V t4009 = c[74] * t1118;
        const V t4010 = t4009 - t1060;
        // real block of 7
        const V t4011 = t3996 + t3994;
        const V t4012 = c[1] * t4011;
        const V t4013 = c[2] * t4011;
        const V t4014 = c[0] * t4011;
        const V t4015 = t4005 + t4002;
        const V t4016 = c[2] * t4005;
        const V t4017 = c[0] * t4002;
        const V t4018 = t4016 - t4017;
        const V t4019 = c[4] * t4006;
        const V t4020 = c[5] * t4003;
        const V t4021 = c[3] * t3997;
        const V t4022 = t4020 + t4021;
        const V t4023 = t4010 + t4007;
        const V t4024 = c[1] * t4002;
        const V t4025 = t4023 + t4024;
        const V t4026 = c[5] * t4006;
        const V t4027 = c[3] * t4003;
        const V t4028 = t4026 + t4027;
        const V t4029 = c[4] * t3997;
        const V t4030 = t4010 + t4008;
        const V t4031 = c[2] * t4002;
        const V t4032 = t4031 - t4030;
        const V t4033 = c[3] * t4006;
        const V t4034 = c[5] * t3997;
        const V t4035 = t4034 - t4033;
        const V t4036 = c[4] * t4003;
        // complex block of 59
        const V t4037 = c[70] * t1027;
        const V t4038 = c[71] * t1107;
        const V t4039 = t4038 - t4037;
        const V t4040 = c[72] * t1028;
        const V t4041 = c[73] * t1106;
        const V t4042 = t4041 + t4040;
        // real block of 7
        const V t4043 = t4039 - t4042;
        const V t4044 = c[1] * t4043;
        const V t4045 = c[2] * t4043;
        const V t4046 = c[0] * t4043;
        const V t4047 = t4042 + t4039;
        const V t4048 = c[4] * t4047;
        const V t4049 = c[5] * t4047;
        const V t4050 = t3977 + t4043;
        const V t4051 = t4050 - t3975;
        // spectrum block of 29, multiplier 2
        const V t4052 = c[30] * t4051;
        const V t4053 = c[31] * t4051;
        // real block of 7
        const V t4054 = t3985 - t3978;
        const V t4055 = t4054 - t4044;
        const V t4056 = c[3] * t4047;
        const V t4057 = t3982 - t3986;
        const V t4058 = t4057 - t4056;
        // real block of 7
        const V t4059 = t4018 - t4012;
        const V t4060 = t4059 - t4010;
        // skew block of 14
        const V t4061 = c[3] * t4060;
        const V t4062 = c[1] * t4060;
        // real block of 7
        const V t4063 = t4022 - t4019;
        // skew block of 14
        const V t4064 = c[1] * t4063;
        const V t4065 = c[3] * t4063;
        // real block of 7
        const V t4066 = t4055 - t3975;
        // skew block of 14
        const V t4067 = t4061 - t4064;
        // complex block of 2
        const V t4068 = t4066 + t4067;
        const V t4069 = t4066 - t4067;
        // skew block of 14
        const V t4070 = t4065 + t4062;
        // complex block of 2
        const V t4071 = t4058 + t4070;
        const V t4072 = t4070 - t4058;
        // real block of 7
        const V t4073 = t3988 + t3979;
        const V t4074 = t4045 - t4073;
        const V t4075 = t4048 - t3989;
        const V t4076 = t4075 - t3983;
        // real block of 7
        const V t4077 = t4013 - t4025;
        // skew block of 14
        const V t4078 = c[4] * t4077;
        const V t4079 = c[2] * t4077;
        // real block of 7
        const V t4080 = t4028 + t4029;
        // skew block of 14
        const V t4081 = c[2] * t4080;
        const V t4082 = c[4] * t4080;
        const V t4083 = t4078 + t4081;
        const V t4084 = t4082 - t4079;
        // complex block of 2
        const V t4085 = t4074 + t4083;
        // spectrum block of 29, multiplier 2
        const V t4086 = c[13] * t4085;
        const V t4087 = c[12] * t4085;
        // complex block of 2
        const V t4088 = t4084 - t4076;
        // spectrum block of 29, multiplier 2
        const V t4089 = c[12] * t4088;
        const V t4090 = c[13] * t4088;
        // complex block of 2
        const V t4091 = t4074 - t4083;
        // spectrum block of 29, multiplier 2
        const V t4092 = c[11] * t4091;
        const V t4093 = c[10] * t4091;
        // complex block of 2
        const V t4094 = t4076 + t4084;
        // spectrum block of 29, multiplier 2
        const V t4095 = c[10] * t4094;
        const V t4096 = c[11] * t4094;
        // real block of 7
        const V t4097 = t3980 - t3991;
        const V t4098 = t4097 - t4046;
        const V t4099 = t3992 + t3984;
        const V t4100 = t4099 + t4049;
        // real block of 7
        const V t4101 = t4032 - t4014;
        // skew block of 14
        const V t4102 = c[5] * t4101;
        const V t4103 = c[0] * t4101;
        // real block of 7
        const V t4104 = t4035 - t4036;
        // skew block of 14
        const V t4105 = c[0] * t4104;
        const V t4106 = c[5] * t4104;
        const V t4107 = t4102 - t4105;
        const V t4108 = t4106 + t4103;
        // complex block of 2
        const V t4109 = t4098 + t4107;
        // spectrum block of 29, multiplier 2
        const V t4110 = c[26] * t4109;
        const V t4111 = c[27] * t4109;
        // complex block of 2
        const V t4112 = t4100 - t4108;
        // spectrum block of 29, multiplier 2
        const V t4113 = c[27] * t4112;
        const V t4114 = c[26] * t4112;
        // complex block of 2
        const V t4115 = t4098 - t4107;
        // spectrum block of 29, multiplier 2
        const V t4116 = c[28] * t4115;
        const V t4117 = c[29] * t4115;
        // complex block of 2
        const V t4118 = t4100 + t4108;
        // spectrum block of 29, multiplier 2
        const V t4119 = c[29] * t4118;
        const V t4120 = c[28] * t4118;
        // real block of 7
        const V t4121 = t4015 + t4011;
        const V t4122 = t4121 - t4010;
        // spectrum block of 29, multiplier 2
        const V t4123 = c[31] * t4122;
        const V t4124 = c[30] * t4122;
        // complex block of 59
        const V t4125 = c[91] * t852;
        // spectrum block of 29, multiplier 2
        const V t4126 = t3494 - t3720;
        const V t4127 = t3726 - t3733;
        // spectrum block of 7, multiplier 4
        const V t4128 = c[2] * t4127;
        const V t4129 = c[0] * t4127;
        const V t4130 = c[1] * t4127;
        // spectrum block of 29, multiplier 2
        const V t4131 = t3740 - t3747;
        // spectrum block of 7, multiplier 4
        const V t4132 = c[0] * t4131;
        const V t4133 = t4127 + t4131;
        const V t4134 = t4128 - t4132;
        const V t4135 = t4126 - t4129;
        const V t4136 = c[1] * t4131;
        const V t4137 = t4126 - t4130;
        const V t4138 = c[2] * t4131;
        // spectrum block of 29, multiplier 2
        const V t4139 = t3753 + t3759;
        // spectrum block of 7, multiplier 4
        const V t4140 = c[1] * t4139;
        const V t4141 = c[2] * t4139;
        const V t4142 = c[0] * t4139;
        const V t4143 = t4133 + t4139;
        const V t4144 = t4143 + t4126;
        const V t4145 = t4134 - t4140;
        const V t4146 = t4145 + t4126;
        const V t4147 = t4135 - t4136;
        const V t4148 = t4147 + t4141;
        const V t4149 = t4137 + t4138;
        const V t4150 = t4149 - t4142;
        // spectrum block of 29, multiplier 2
        const V t4151 = t3950 + t3953;
        const V t4152 = t3956 + t3959;
        // complex block of 7, multiplier 4
        const V t4153 = t4151 + t4152;
        const V t4154 = t4152 - t4151;
        const V t4155 = c[0] * t4153;
        // spectrum block of 29, multiplier 2
        const V t4156 = t3926 - t3929;
        const V t4157 = t3932 - t3935;
        // complex block of 7, multiplier 4
        const V t4158 = t4157 + t4156;
        const V t4159 = t4157 - t4156;
        const V t4160 = c[2] * t4158;
        const V t4161 = c[0] * t4158;
        const V t4162 = c[1] * t4158;
        // spectrum block of 29, multiplier 2
        const V t4163 = c[22] * t3911;
        const V t4164 = c[23] * t3908;
        const V t4165 = t4163 - t4164;
        const V t4166 = c[20] * t3912;
        const V t4167 = c[21] * t3909;
        const V t4168 = t4167 + t4166;
        // complex block of 7, multiplier 4
        const V t4169 = t4165 + t4168;
        // spectrum block of 29, multiplier 2
        const V t4170 = t3892 - t3963;
        // complex block of 7, multiplier 4
        const V t4171 = t4165 - t4168;
        const V t4172 = c[3] * t4171;
        const V t4173 = c[4] * t4171;
        const V t4174 = c[5] * t4171;
        const V t4175 = t4158 - t4153;
        const V t4176 = t4175 + t4169;
        const V t4177 = t4160 + t4155;
        const V t4178 = c[1] * t4169;
        const V t4179 = t4177 - t4178;
        const V t4180 = c[4] * t4159;
        const V t4181 = c[5] * t4154;
        const V t4182 = t4180 - t4181;
        const V t4183 = t4170 - t4161;
        const V t4184 = c[1] * t4153;
        const V t4185 = t4183 + t4184;
        const V t4186 = c[2] * t4169;
        const V t4187 = c[5] * t4159;
        const V t4188 = c[3] * t4154;
        const V t4189 = t4187 + t4188;
        const V t4190 = t4170 - t4162;
        const V t4191 = c[2] * t4153;
        const V t4192 = t4190 - t4191;
        const V t4193 = c[0] * t4169;
        const V t4194 = c[3] * t4159;
        const V t4195 = c[4] * t4154;
        const V t4196 = t4194 + t4195;
        // spectrum block of 29, multiplier 2
        const V t4197 = t3954 - t3951;
        const V t4198 = t3960 - t3957;
        // complex block of 7, multiplier 4
        const V t4199 = t4197 + t4198;
        const V t4200 = t4198 - t4197;
        const V t4201 = c[1] * t4199;
        const V t4202 = c[2] * t4199;
        // spectrum block of 29, multiplier 2
        const V t4203 = t3930 + t3927;
        const V t4204 = t3936 + t3933;
        // complex block of 7, multiplier 4
        const V t4205 = t4204 + t4203;
        const V t4206 = t4203 - t4204;
        const V t4207 = c[2] * t4205;
        const V t4208 = c[0] * t4205;
        const V t4209 = c[1] * t4205;
        // spectrum block of 29, multiplier 2
        const V t4210 = c[22] * t3908;
        const V t4211 = c[23] * t3911;
        const V t4212 = t4211 + t4210;
        const V t4213 = c[20] * t3909;
        const V t4214 = c[21] * t3912;
        const V t4215 = t4213 - t4214;
        // complex block of 7, multiplier 4
        const V t4216 = t4212 + t4215;
        // spectrum block of 29, multiplier 2
        const V t4217 = t3964 + t3893;
        // complex block of 7, multiplier 4
        const V t4218 = t4215 - t4212;
        const V t4219 = c[3] * t4218;
        const V t4220 = c[4] * t4218;
        const V t4221 = c[5] * t4218;
        const V t4222 = t4205 + t4199;
        const V t4223 = t4222 + t4216;
        const V t4224 = t4217 + t4207;
        const V t4225 = c[0] * t4199;
        const V t4226 = t4225 - t4224;
        const V t4227 = c[1] * t4216;
        const V t4228 = c[4] * t4206;
        const V t4229 = c[5] * t4200;
        const V t4230 = t4228 - t4229;
        const V t4231 = t4208 + t4201;
        const V t4232 = c[2] * t4216;
        const V t4233 = t4231 - t4232;
        const V t4234 = c[5] * t4206;
        const V t4235 = c[3] * t4200;
        const V t4236 = t4234 + t4235;
        const V t4237 = t4209 - t4202;
        const V t4238 = c[0] * t4216;
        const V t4239 = t4237 + t4238;
        const V t4240 = c[3] * t4206;
        const V t4241 = c[4] * t4200;
        const V t4242 = t4240 + t4241;
        // spectrum block of 29, multiplier 2
        const V t4243 = t3797 + t3803;
        // spectrum block of 7, multiplier 4
        const V t4244 = c[1] * t4243;
        const V t4245 = c[2] * t4243;
        const V t4246 = c[0] * t4243;
        // spectrum block of 29, multiplier 2
        const V t4247 = t3784 - t3791;
        // spectrum block of 7, multiplier 4
        const V t4248 = c[0] * t4247;
        // spectrum block of 29, multiplier 2
        const V t4249 = t3777 - t3770;
        // spectrum block of 7, multiplier 4
        const V t4250 = c[2] * t4249;
        const V t4251 = c[0] * t4249;
        const V t4252 = c[1] * t4249;
        const V t4253 = t4249 + t4247;
        const V t4254 = t4250 - t4248;
        const V t4255 = t3764 + t4251;
        const V t4256 = c[1] * t4247;
        const V t4257 = t3764 + t4252;
        const V t4258 = c[2] * t4247;
        const V t4259 = t4253 + t4243;
        const V t4260 = t4259 - t3764;
        const V t4261 = t4254 - t4244;
        const V t4262 = t4261 - t3764;
        const V t4263 = t4255 + t4256;
        const V t4264 = t4245 - t4263;
        const V t4265 = t4258 - t4257;
        const V t4266 = t4265 - t4246;
        // spectrum block of 29, multiplier 2
        const V t4267 = c[19] * t3796;
        const V t4268 = t4267 - t3804;
        const V t4269 = t3792 + t3785;
        // spectrum block of 7, multiplier 4
        const V t4270 = c[5] * t4269;
        const V t4271 = c[3] * t4269;
        const V t4272 = c[4] * t4269;
        // spectrum block of 29, multiplier 2
        const V t4273 = t3778 + t3771;
        // spectrum block of 7, multiplier 4
        const V t4274 = c[4] * t4273;
        const V t4275 = c[5] * t4273;
        const V t4276 = c[3] * t4273;
        const V t4277 = t4274 + t4270;
        const V t4278 = c[3] * t4268;
        const V t4279 = t4277 - t4278;
        const V t4280 = t4275 - t4271;
        const V t4281 = c[4] * t4268;
        const V t4282 = t4280 + t4281;
        const V t4283 = t4276 - t4272;
        const V t4284 = c[5] * t4268;
        const V t4285 = t4283 - t4284;
        // spectrum block of 29, multiplier 2
        const V t4286 = t3734 + t3727;
        // spectrum block of 7, multiplier 4
        const V t4287 = c[4] * t4286;
        const V t4288 = c[5] * t4286;
        const V t4289 = c[3] * t4286;
        // spectrum block of 29, multiplier 2
        const V t4290 = t3748 + t3741;
        // spectrum block of 7, multiplier 4
        const V t4291 = c[5] * t4290;
        const V t4292 = c[3] * t4290;
        const V t4293 = c[4] * t4290;
        // spectrum block of 29, multiplier 2
        const V t4294 = c[18] * t3752;
        const V t4295 = t3760 - t4294;
        // spectrum block of 7, multiplier 4
        const V t4296 = t4291 - t4287;
        const V t4297 = c[3] * t4295;
        const V t4298 = t4296 + t4297;
        const V t4299 = t4288 + t4292;
        const V t4300 = c[4] * t4295;
        const V t4301 = t4299 + t4300;
        const V t4302 = t4289 + t4293;
        const V t4303 = c[5] * t4295;
        const V t4304 = t4303 - t4302;
        // spectrum block of 29, multiplier 2
        const V t4305 = t4125 + t3565;
        const V t4306 = t3571 - t3578;
        // spectrum block of 7, multiplier 4
        const V t4307 = c[2] * t4306;
        const V t4308 = c[0] * t4306;
        const V t4309 = c[1] * t4306;
        // spectrum block of 29, multiplier 2
        const V t4310 = t3585 - t3592;
        // spectrum block of 7, multiplier 4
        const V t4311 = c[0] * t4310;
        const V t4312 = t4306 + t4310;
        const V t4313 = t4307 - t4311;
        const V t4314 = t4305 + t4308;
        const V t4315 = c[1] * t4310;
        const V t4316 = t4305 + t4309;
        const V t4317 = c[2] * t4310;
        // spectrum block of 29, multiplier 2
        const V t4318 = t3598 + t3604;
        // spectrum block of 7, multiplier 4
        const V t4319 = c[1] * t4318;
        const V t4320 = c[2] * t4318;
        const V t4321 = c[0] * t4318;
        const V t4322 = t4312 + t4318;
        const V t4323 = t4322 - t4305;
        const V t4324 = t4313 - t4319;
        const V t4325 = t4324 - t4305;
        const V t4326 = t4314 + t4315;
        const V t4327 = t4320 - t4326;
        const V t4328 = t4317 - t4316;
        const V t4329 = t4328 - t4321;
        // spectrum block of 29, multiplier 2
        const V t4330 = t4113 - t4110;
        const V t4331 = t4116 + t4119;
        // complex block of 7, multiplier 4
        const V t4332 = t4330 - t4331;
        const V t4333 = t4330 + t4331;
        const V t4334 = c[0] * t4332;
        // spectrum block of 29, multiplier 2
        const V t4335 = t4086 + t4089;
        const V t4336 = t4092 + t4095;
        // complex block of 7, multiplier 4
        const V t4337 = t4336 + t4335;
        const V t4338 = t4336 - t4335;
        const V t4339 = c[2] * t4337;
        const V t4340 = c[0] * t4337;
        const V t4341 = c[1] * t4337;
        // spectrum block of 29, multiplier 2
        const V t4342 = c[22] * t4071;
        const V t4343 = c[23] * t4068;
        const V t4344 = t4342 - t4343;
        const V t4345 = c[20] * t4072;
        const V t4346 = c[21] * t4069;
        const V t4347 = t4346 + t4345;
        // complex block of 7, multiplier 4
        const V t4348 = t4344 + t4347;
        // spectrum block of 29, multiplier 2
        const V t4349 = t4052 - t4123;
        // complex block of 7, multiplier 4
        const V t4350 = t4344 - t4347;
        const V t4351 = c[3] * t4350;
        const V t4352 = c[4] * t4350;
        const V t4353 = c[5] * t4350;
        const V t4354 = t4337 + t4332;
        const V t4355 = t4354 + t4348;
        const V t4356 = t4339 - t4334;
        const V t4357 = c[1] * t4348;
        const V t4358 = t4356 - t4357;
        const V t4359 = c[4] * t4338;
        const V t4360 = c[5] * t4333;
        const V t4361 = t4359 - t4360;
        const V t4362 = t4349 - t4340;
        const V t4363 = c[1] * t4332;
        const V t4364 = t4362 - t4363;
        const V t4365 = c[2] * t4348;
        const V t4366 = c[5] * t4338;
        const V t4367 = c[3] * t4333;
        const V t4368 = t4366 + t4367;
        const V t4369 = t4349 - t4341;
        const V t4370 = c[2] * t4332;
        const V t4371 = t4369 + t4370;
        const V t4372 = c[0] * t4348;
        const V t4373 = c[3] * t4338;
        const V t4374 = c[4] * t4333;
        const V t4375 = t4373 + t4374;
        // spectrum block of 29, multiplier 2
        const V t4376 = t4114 + t4111;
        const V t4377 = t4120 - t4117;
        // complex block of 7, multiplier 4
        const V t4378 = t4376 - t4377;
        const V t4379 = t4376 + t4377;
        const V t4380 = c[0] * t4378;
        // spectrum block of 29, multiplier 2
        const V t4381 = t4090 - t4087;
        const V t4382 = t4096 - t4093;
        // complex block of 7, multiplier 4
        const V t4383 = t4382 + t4381;
        const V t4384 = t4382 - t4381;
        const V t4385 = c[2] * t4383;
        const V t4386 = c[0] * t4383;
        const V t4387 = c[1] * t4383;
        // spectrum block of 29, multiplier 2
        const V t4388 = c[22] * t4068;
        const V t4389 = c[23] * t4071;
        const V t4390 = t4389 + t4388;
        const V t4391 = c[20] * t4069;
        const V t4392 = c[21] * t4072;
        const V t4393 = t4391 - t4392;
        // complex block of 7, multiplier 4
        const V t4394 = t4390 + t4393;
        // spectrum block of 29, multiplier 2
        const V t4395 = t4124 + t4053;
        // complex block of 7, multiplier 4
        const V t4396 = t4393 - t4390;
        const V t4397 = c[3] * t4396;
        const V t4398 = c[4] * t4396;
        const V t4399 = c[5] * t4396;
        const V t4400 = t4383 + t4378;
        const V t4401 = t4400 - t4394;
        const V t4402 = t4385 - t4380;
        const V t4403 = c[1] * t4394;
        const V t4404 = t4402 + t4403;
        const V t4405 = c[4] * t4384;
        const V t4406 = c[5] * t4379;
        const V t4407 = t4405 - t4406;
        const V t4408 = t4395 + t4386;
        const V t4409 = c[1] * t4378;
        const V t4410 = t4408 + t4409;
        const V t4411 = c[2] * t4394;
        const V t4412 = c[5] * t4384;
        const V t4413 = c[3] * t4379;
        const V t4414 = t4412 + t4413;
        const V t4415 = t4395 + t4387;
        const V t4416 = c[2] * t4378;
        const V t4417 = t4416 - t4415;
        const V t4418 = c[0] * t4394;
        const V t4419 = c[3] * t4384;
        const V t4420 = c[4] * t4379;
        const V t4421 = t4419 + t4420;
        // spectrum block of 29, multiplier 2
        const V t4422 = t3642 + t3648;
        // spectrum block of 7, multiplier 4
        const V t4423 = c[1] * t4422;
        const V t4424 = c[2] * t4422;
        const V t4425 = c[0] * t4422;
        // spectrum block of 29, multiplier 2
        const V t4426 = t3629 - t3636;
        // spectrum block of 7, multiplier 4
        const V t4427 = c[0] * t4426;
        // spectrum block of 29, multiplier 2
        const V t4428 = t3622 - t3615;
        // spectrum block of 7, multiplier 4
        const V t4429 = c[2] * t4428;
        const V t4430 = c[0] * t4428;
        const V t4431 = c[1] * t4428;
        const V t4432 = t4428 + t4426;
        const V t4433 = t4429 - t4427;
        const V t4434 = t3609 + t4430;
        const V t4435 = c[1] * t4426;
        const V t4436 = t3609 + t4431;
        const V t4437 = c[2] * t4426;
        const V t4438 = t4432 + t4422;
        const V t4439 = t4438 - t3609;
        const V t4440 = t4433 - t4423;
        const V t4441 = t4440 - t3609;
        const V t4442 = t4434 + t4435;
        const V t4443 = t4424 - t4442;
        const V t4444 = t4437 - t4436;
        const V t4445 = t4444 - t4425;
        // spectrum block of 29, multiplier 2
        const V t4446 = c[19] * t3641;
        const V t4447 = t4446 - t3649;
        const V t4448 = t3637 + t3630;
        // spectrum block of 7, multiplier 4
        const V t4449 = c[5] * t4448;
        const V t4450 = c[3] * t4448;
        const V t4451 = c[4] * t4448;
        // spectrum block of 29, multiplier 2
        const V t4452 = t3623 + t3616;
        // spectrum block of 7, multiplier 4
        const V t4453 = c[4] * t4452;
        const V t4454 = c[5] * t4452;
        const V t4455 = c[3] * t4452;
        const V t4456 = t4453 + t4449;
        const V t4457 = c[3] * t4447;
        const V t4458 = t4456 - t4457;
        const V t4459 = t4454 - t4450;
        const V t4460 = c[4] * t4447;
        const V t4461 = t4459 + t4460;
        const V t4462 = t4455 - t4451;
        const V t4463 = c[5] * t4447;
        const V t4464 = t4462 - t4463;
        // spectrum block of 29, multiplier 2
        const V t4465 = t3579 + t3572;
        // spectrum block of 7, multiplier 4
        const V t4466 = c[4] * t4465;
        const V t4467 = c[5] * t4465;
        const V t4468 = c[3] * t4465;
        // spectrum block of 29, multiplier 2
        const V t4469 = t3593 + t3586;
        // spectrum block of 7, multiplier 4
        const V t4470 = c[5] * t4469;
        const V t4471 = c[3] * t4469;
        const V t4472 = c[4] * t4469;
        // spectrum block of 29, multiplier 2
        const V t4473 = c[18] * t3597;
        const V t4474 = t3605 - t4473;
        // spectrum block of 7, multiplier 4
        const V t4475 = t4470 - t4466;
        const V t4476 = c[3] * t4474;
        const V t4477 = t4475 + t4476;
        const V t4478 = t4467 + t4471;
        const V t4479 = c[4] * t4474;
        const V t4480 = t4478 + t4479;
        const V t4481 = t4468 + t4472;
        const V t4482 = c[5] * t4474;
        const V t4483 = t4482 - t4481;
        // spectrum block of 7, multiplier 4
        const V t4484 = t4146 - t4298;
        // spectrum block of 7, multiplier 4
        const V t4485 = t4262 - t4279;
        // spectrum block of 2
        const V t4486 = t4484 + t4485;
        const V t4487 = t4484 - t4485;
        // spectrum block of 7, multiplier 4
        const V t4488 = t4146 + t4298;
        // spectrum block of 7, multiplier 4
        const V t4489 = t4262 + t4279;
        // spectrum block of 2
        const V t4490 = t4488 + t4489;
        const V t4491 = t4488 - t4489;
        // complex block of 7, multiplier 4
        const V t4492 = t4226 + t4227;
        const V t4493 = t4182 - t4172;
        const V t4494 = t4492 + t4493;
        const V t4495 = t4492 - t4493;
        const V t4496 = t4179 + t4170;
        const V t4497 = t4230 - t4219;
        const V t4498 = t4496 - t4497;
        const V t4499 = t4496 + t4497;
        // spectrum block of 7, multiplier 4
        const V t4500 = t4325 - t4477;
        // spectrum block of 7, multiplier 4
        const V t4501 = t4441 - t4458;
        // spectrum block of 2
        const V t4502 = t4500 + t4501;
        const V t4503 = t4500 - t4501;
        // spectrum block of 7, multiplier 4
        const V t4504 = t4325 + t4477;
        // spectrum block of 7, multiplier 4
        const V t4505 = t4441 + t4458;
        // spectrum block of 2
        const V t4506 = t4504 + t4505;
        const V t4507 = t4504 - t4505;
        // complex block of 7, multiplier 4
        const V t4508 = t4404 - t4395;
        const V t4509 = t4361 - t4351;
        const V t4510 = t4508 + t4509;
        const V t4511 = t4508 - t4509;
        const V t4512 = t4358 + t4349;
        const V t4513 = t4407 - t4397;
        const V t4514 = t4512 - t4513;
        const V t4515 = t4512 + t4513;
        // spectrum block of 2
        const V t4516 = t4486 + t4498;
        // spectrum block of 2
        const V t4517 = t4502 + t4514;
        // spectrum block of 2
        const V t4518 = t4516 + t4517;
        io.im(25, t4518);
        const V t4519 = t4516 - t4517;
        io.im(34, t4519);
        // spectrum block of 2
        const V t4520 = t4486 - t4498;
        // spectrum block of 2
        const V t4521 = t4502 - t4514;
        // spectrum block of 2
        const V t4522 = t4520 + t4521;
        io.im(26, t4522);
        const V t4523 = t4520 - t4521;
        io.im(33, t4523);
        // spectrum block of 2
        const V t4524 = t4487 + t4494;
        // spectrum block of 2
        const V t4525 = t4503 + t4510;
        // spectrum block of 2
        const V t4526 = t4524 + t4525;
        io.im(57, t4526);
        const V t4527 = t4524 - t4525;
        io.im(2, t4527);
        // spectrum block of 2
        const V t4528 = t4487 - t4494;
        // spectrum block of 2
        const V t4529 = t4503 - t4510;
        // spectrum block of 2
        const V t4530 = t4528 + t4529;
        io.im(29, t4530);
        const V t4531 = t4528 - t4529;
        io.im(30, t4531);
        // spectrum block of 2
        const V t4532 = t4490 + t4499;
        // spectrum block of 2
        const V t4533 = t4506 + t4515;
        // spectrum block of 2
        const V t4534 = t4532 + t4533;
        io.im(21, t4534);
        const V t4535 = t4532 - t4533;
        io.im(38, t4535);
        // spectrum block of 2
        const V t4536 = t4490 - t4499;
        // spectrum block of 2
        const V t4537 = t4506 - t4515;
        // spectrum block of 2
        const V t4538 = t4536 + t4537;
        io.im(45, t4538);
        const V t4539 = t4536 - t4537;
        io.im(14, t4539);
        // spectrum block of 2
        const V t4540 = t4491 + t4495;
        // spectrum block of 2
        const V t4541 = t4507 + t4511;
        // spectrum block of 2
        const V t4542 = t4540 + t4541;
        io.im(48, t4542);
        const V t4543 = t4540 - t4541;
        io.im(11, t4543);
        // spectrum block of 2
        const V t4544 = t4491 - t4495;
        // spectrum block of 2
        const V t4545 = t4507 - t4511;
        // spectrum block of 2
        const V t4546 = t4544 + t4545;
        io.im(16, t4546);
        const V t4547 = t4544 - t4545;
        io.im(43, t4547);
        // spectrum block of 7, multiplier 4
        const V t4548 = t4148 + t4301;
        // spectrum block of 7, multiplier 4
        const V t4549 = t4264 - t4282;
        // spectrum block of 2
        const V t4550 = t4548 + t4549;
        const V t4551 = t4548 - t4549;
        // spectrum block of 7, multiplier 4
        const V t4552 = t4148 - t4301;
        // spectrum block of 7, multiplier 4
        const V t4553 = t4264 + t4282;
        // spectrum block of 2
        const V t4554 = t4552 + t4553;
        const V t4555 = t4552 - t4553;
        // complex block of 7, multiplier 4
        const V t4556 = t4233 - t4217;
        const V t4557 = t4189 + t4173;
        const V t4558 = t4556 + t4557;
        const V t4559 = t4556 - t4557;
        const V t4560 = t4185 + t4186;
        const V t4561 = t4236 + t4220;
        const V t4562 = t4560 - t4561;
        const V t4563 = t4560 + t4561;
        // spectrum block of 7, multiplier 4
        const V t4564 = t4327 + t4480;
        // spectrum block of 7, multiplier 4
        const V t4565 = t4443 - t4461;
        // spectrum block of 2
        const V t4566 = t4564 + t4565;
        const V t4567 = t4564 - t4565;
        // spectrum block of 7, multiplier 4
        const V t4568 = t4327 - t4480;
        // spectrum block of 7, multiplier 4
        const V t4569 = t4443 + t4461;
        // spectrum block of 2
        const V t4570 = t4568 + t4569;
        const V t4571 = t4568 - t4569;
        // complex block of 7, multiplier 4
        const V t4572 = t4410 + t4411;
        const V t4573 = t4368 + t4352;
        const V t4574 = t4573 - t4572;
        const V t4575 = t4572 + t4573;
        const V t4576 = t4364 + t4365;
        const V t4577 = t4414 + t4398;
        const V t4578 = t4576 - t4577;
        const V t4579 = t4576 + t4577;
        // spectrum block of 2
        const V t4580 = t4554 + t4563;
        // spectrum block of 2
        const V t4581 = t4570 + t4579;
        // spectrum block of 2
        const V t4582 = t4580 + t4581;
        io.im(20, t4582);
        const V t4583 = t4580 - t4581;
        io.im(39, t4583);
        // spectrum block of 2
        const V t4584 = t4554 - t4563;
        // spectrum block of 2
        const V t4585 = t4570 - t4579;
        // spectrum block of 2
        const V t4586 = t4584 + t4585;
        io.im(3, t4586);
        const V t4587 = t4584 - t4585;
        io.im(56, t4587);
        // spectrum block of 2
        const V t4588 = t4555 + t4559;
        // spectrum block of 2
        const V t4589 = t4571 - t4575;
        // spectrum block of 2
        const V t4590 = t4588 + t4589;
        io.im(28, t4590);
        const V t4591 = t4588 - t4589;
        io.im(31, t4591);
        // spectrum block of 2
        const V t4592 = t4555 - t4559;
        // spectrum block of 2
        const V t4593 = t4571 + t4575;
        // spectrum block of 2
        const V t4594 = t4592 + t4593;
        io.im(19, t4594);
        const V t4595 = t4592 - t4593;
        io.im(40, t4595);
        // spectrum block of 2
        const V t4596 = t4550 + t4562;
        // spectrum block of 2
        const V t4597 = t4566 + t4578;
        // spectrum block of 2
        const V t4598 = t4596 + t4597;
        io.im(36, t4598);
        const V t4599 = t4596 - t4597;
        io.im(23, t4599);
        // spectrum block of 2
        const V t4600 = t4550 - t4562;
        // spectrum block of 2
        const V t4601 = t4566 - t4578;
        // spectrum block of 2
        const V t4602 = t4600 + t4601;
        io.im(41, t4602);
        const V t4603 = t4600 - t4601;
        io.im(18, t4603);
        // spectrum block of 2
        const V t4604 = t4551 + t4558;
        // spectrum block of 2
        const V t4605 = t4567 + t4574;
        // spectrum block of 2
        const V t4606 = t4604 + t4605;
        io.im(12, t4606);
        const V t4607 = t4604 - t4605;
        io.im(47, t4607);
        // spectrum block of 2
        const V t4608 = t4551 - t4558;
        // spectrum block of 2
        const V t4609 = t4567 - t4574;
        // spectrum block of 2
        const V t4610 = t4608 + t4609;
        io.im(5, t4610);
        const V t4611 = t4608 - t4609;
        io.im(54, t4611);
        // spectrum block of 7, multiplier 4
        const V t4612 = t4150 - t4304;
        // spectrum block of 7, multiplier 4
        const V t4613 = t4266 - t4285;
        // spectrum block of 2
        const V t4614 = t4612 + t4613;
        const V t4615 = t4612 - t4613;
        // spectrum block of 7, multiplier 4
        const V t4616 = t4150 + t4304;
        // spectrum block of 7, multiplier 4
        const V t4617 = t4266 + t4285;
        // spectrum block of 2
        const V t4618 = t4616 + t4617;
        const V t4619 = t4616 - t4617;
        // complex block of 7, multiplier 4
        const V t4620 = t4239 - t4217;
        const V t4621 = t4196 - t4174;
        const V t4622 = t4620 + t4621;
        const V t4623 = t4620 - t4621;
        const V t4624 = t4192 - t4193;
        const V t4625 = t4242 - t4221;
        const V t4626 = t4624 - t4625;
        const V t4627 = t4624 + t4625;
        // spectrum block of 7, multiplier 4
        const V t4628 = t4329 - t4483;
        // spectrum block of 7, multiplier 4
        const V t4629 = t4445 - t4464;
        // spectrum block of 2
        const V t4630 = t4628 + t4629;
        const V t4631 = t4628 - t4629;
        // spectrum block of 7, multiplier 4
        const V t4632 = t4329 + t4483;
        // spectrum block of 7, multiplier 4
        const V t4633 = t4445 + t4464;
        // spectrum block of 2
        const V t4634 = t4632 + t4633;
        const V t4635 = t4632 - t4633;
        // complex block of 7, multiplier 4
        const V t4636 = t4417 + t4418;
        const V t4637 = t4375 - t4353;
        const V t4638 = t4636 + t4637;
        const V t4639 = t4636 - t4637;
        const V t4640 = t4371 - t4372;
        const V t4641 = t4421 - t4399;
        const V t4642 = t4640 - t4641;
        const V t4643 = t4640 + t4641;
        // spectrum block of 2
        const V t4644 = t4618 + t4627;
        // spectrum block of 2
        const V t4645 = t4634 + t4643;
        // spectrum block of 2
        const V t4646 = t4644 + t4645;
        io.im(7, t4646);
        const V t4647 = t4644 - t4645;
        io.im(52, t4647);
        // spectrum block of 2
        const V t4648 = t4618 - t4627;
        // spectrum block of 2
        const V t4649 = t4634 - t4643;
        // spectrum block of 2
        const V t4650 = t4648 + t4649;
        io.im(17, t4650);
        const V t4651 = t4648 - t4649;
        io.im(42, t4651);
        // spectrum block of 2
        const V t4652 = t4619 + t4623;
        // spectrum block of 2
        const V t4653 = t4635 + t4639;
        // spectrum block of 2
        const V t4654 = t4652 + t4653;
        io.im(46, t4654);
        const V t4655 = t4652 - t4653;
        io.im(13, t4655);
        // spectrum block of 2
        const V t4656 = t4619 - t4623;
        // spectrum block of 2
        const V t4657 = t4635 - t4639;
        // spectrum block of 2
        const V t4658 = t4656 + t4657;
        io.im(9, t4658);
        const V t4659 = t4656 - t4657;
        io.im(50, t4659);
        // spectrum block of 2
        const V t4660 = t4614 + t4626;
        // spectrum block of 2
        const V t4661 = t4630 + t4642;
        // spectrum block of 2
        const V t4662 = t4660 + t4661;
        io.im(22, t4662);
        const V t4663 = t4660 - t4661;
        io.im(37, t4663);
        // spectrum block of 2
        const V t4664 = t4614 - t4626;
        // spectrum block of 2
        const V t4665 = t4630 - t4642;
        // spectrum block of 2
        const V t4666 = t4664 + t4665;
        io.im(51, t4666);
        const V t4667 = t4664 - t4665;
        io.im(8, t4667);
        // spectrum block of 2
        const V t4668 = t4615 + t4622;
        // spectrum block of 2
        const V t4669 = t4631 + t4638;
        // spectrum block of 2
        const V t4670 = t4668 + t4669;
        io.im(49, t4670);
        const V t4671 = t4668 - t4669;
        io.im(10, t4671);
        // spectrum block of 2
        const V t4672 = t4615 - t4622;
        // spectrum block of 2
        const V t4673 = t4631 - t4638;
        // spectrum block of 2
        const V t4674 = t4672 + t4673;
        io.im(53, t4674);
        const V t4675 = t4672 - t4673;
        io.im(6, t4675);
        // complex block of 7, multiplier 4
        const V t4676 = t4223 + t4217;
        // spectrum block of 2
        const V t4677 = t4144 - t4260;
        // spectrum block of 2
        const V t4678 = t4677 - t4676;
        const V t4679 = t4677 + t4676;
        // complex block of 7, multiplier 4
        const V t4680 = t4401 - t4395;
        // spectrum block of 2
        const V t4681 = t4323 - t4439;
        // spectrum block of 2
        const V t4682 = t4681 + t4680;
        const V t4683 = t4681 - t4680;
        // spectrum block of 2
        const V t4684 = t4679 + t4683;
        io.im(27, t4684);
        const V t4685 = t4679 - t4683;
        io.im(32, t4685);
        // spectrum block of 2
        const V t4686 = t4678 + t4682;
        io.im(35, t4686);
        const V t4687 = t4678 - t4682;
        io.im(24, t4687);
        // complex block of 7, multiplier 4
        const V t4688 = t4176 + t4170;
        // spectrum block of 2
        const V t4689 = t4144 + t4260;
        // spectrum block of 2
        const V t4690 = t4689 + t4688;
        const V t4691 = t4689 - t4688;
        // complex block of 7, multiplier 4
        const V t4692 = t4355 + t4349;
        // spectrum block of 2
        const V t4693 = t4323 + t4439;
        // spectrum block of 2
        const V t4694 = t4693 + t4692;
        const V t4695 = t4693 - t4692;
        // spectrum block of 2
        const V t4696 = t4690 + t4694;
        io.im(15, t4696);
        const V t4697 = t4690 - t4694;
        io.im(44, t4697);
        // spectrum block of 2
        const V t4698 = t4691 + t4695;
        io.im(4, t4698);
        const V t4699 = t4691 - t4695;
        io.im(55, t4699);
        // spectrum block of 29, multiplier 2
        const V t4700 = t3494 + t3719;
        // spectrum block of 29, multiplier 2
        const V t4701 = t3564 - t4125;
        // spectrum block of 2
        const V t4702 = t4700 + t4701;
        io.im(1, t4702);
        const V t4703 = t4700 - t4701;
        io.im(58, t4703);
    }
};

}  // namespace zulg
