// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 59.
// Complex DFT of 59 points, Rader block; one complex number to a register.
// 756 sums, 654 differences, 966 products of registers, which do the 4822 steps of the graph, those with
// `scale` included; 73 shuffles, 43 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<59> {
    static constexpr int steps = 4822;  // with `scale`
    static constexpr double inverseRoot = 0.13018891098082389;  // 1/sqrt(59), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.21044290248272673,  // c[6]: P[1] of 29
        0.3219828698364479,  // c[7]: -Q[1] of 29
        0.3298297662985413,  // c[8]: P[2] of 29
        0.19791793485411824,  // c[9]: Q[2] of 29
        0.384463442096457,  // c[10]: P[3] of 29
        0.012126226322052493,  // c[11]: Q[3] of 29
        0.3609030660383976,  // c[12]: P[4] of 29
        0.1330720128259635,  // c[13]: -Q[4] of 29
        0.36147698792300353,  // c[14]: -Q[5] of 29
        0.13150502224471186,  // c[15]: -P[5] of 29
        0.38084126020120657,  // c[16]: P[6] of 29
        0.054028864524680344,  // c[17]: -Q[6] of 29
        0.3777140697119294,  // c[18]: P[7] of 29
        0.07274108340629196,  // c[19]: Q[7] of 29
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
        0.26445074818613296,  // c[34]: Q[1] of 59
        0.014845190038075228,  // c[35]: -P[1] of 59
        0.26114224835741606,  // c[36]: P[2] of 59
        0.044264026096884644,  // c[37]: -Q[2] of 59
        0.25083970924567417,  // c[38]: P[3] of 59
        0.08505303139228909,  // c[39]: Q[3] of 59
        0.2644019076085337,  // c[40]: Q[4] of 59
        0.015691052751184383,  // c[41]: -P[4] of 59
        0.26386145948235246,  // c[42]: -Q[5] of 59
        0.02305879622432487,  // c[43]: -P[5] of 59
        0.06754835352935287,  // c[44]: P[6] of 59
        0.2561089569283855,  // c[45]: Q[6] of 59
        0.25249265337152266,  // c[46]: P[7] of 59
        0.08001273571676054,  // c[47]: Q[7] of 59
        0.238593595389464,  // c[48]: P[8] of 59
        0.11501162603233117,  // c[49]: Q[8] of 59
        0.0638323763819381,  // c[50]: -P[9] of 59
        0.2570603151186636,  // c[51]: Q[9] of 59
        0.11074515450157817,  // c[52]: P[10] of 59
        0.240603592321257,  // c[53]: Q[10] of 59
        0.15288063964143453,  // c[54]: -Q[11] of 59
        0.21629167322460174,  // c[55]: -P[11] of 59
        0.08920241088977601,  // c[56]: Q[12] of 59
        0.24939428176067635,  // c[57]: -P[12] of 59
        0.2374982361930323,  // c[58]: -Q[13] of 59
        0.11725683642615767,  // c[59]: -P[13] of 59
        0.13329431386769738,  // c[60]: -P[14] of 59
        0.22888251085220956,  // c[61]: Q[14] of 59
        0.26378234639543136,  // c[62]: -P[15] of 59
        0.02394684976343933,  // c[63]: Q[15] of 59
        0.23880474209212857,  // c[64]: P[16] of 59
        0.11457256668934328,  // c[65]: -Q[16] of 59
        0.1612612423114406,  // c[66]: -Q[17] of 59
        0.210117561407044,  // c[67]: P[17] of 59
        0.23429573625085479,  // c[68]: P[18] of 59
        0.12353172004850395,  // c[69]: -Q[18] of 59
        0.2377423799688404,  // c[70]: P[19] of 59
        0.11676103224202658,  // c[71]: Q[19] of 59
        0.15410629769252931,  // c[72]: -P[20] of 59
        0.21542011720118803,  // c[73]: Q[20] of 59
        0.2309299428168255,  // c[74]: -Q[21] of 59
        0.1297148387582923,  // c[75]: P[21] of 59
        0.20555395406945343,  // c[76]: P[22] of 59
        0.1670393661682332,  // c[77]: Q[22] of 59
        0.26033742546207705,  // c[78]: Q[23] of 59
        0.0487750221655463,  // c[79]: -P[23] of 59
        0.008222825940389141,  // c[80]: -Q[24] of 59
        0.26473942475012313,  // c[81]: -P[24] of 59
        0.12154489634858227,  // c[82]: -Q[25] of 59
        0.23533256479944387,  // c[83]: P[25] of 59
        0.2214129800967289,  // c[84]: P[26] of 59
        0.14536461098959946,  // c[85]: Q[26] of 59
        0.25925932295435405,  // c[86]: -P[27] of 59
        0.05421421718259892,  // c[87]: Q[27] of 59
        0.2507047860557158,  // c[88]: P[28] of 59
        0.0854499159287465,  // c[89]: Q[28] of 59
        0.017241379310344827,  // c[90]: 1/58
        0.13243354737704496,  // c[91]: beta of 59
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x58 = io.pair(58);
        // real block of 2
        const P t0 = x1 + x58;
        const P t1 = x1 - x58;
        const P x4 = io.pair(4);
        const P x55 = io.pair(55);
        // real block of 2
        const P t2 = x4 + x55;
        const P t3 = x4 - x55;
        const P x16 = io.pair(16);
        const P x43 = io.pair(43);
        // real block of 2
        const P t4 = x16 + x43;
        const P t5 = x16 - x43;
        const P x5 = io.pair(5);
        const P x54 = io.pair(54);
        // real block of 2
        const P t6 = x5 + x54;
        const P t7 = x5 - x54;
        const P x20 = io.pair(20);
        const P x39 = io.pair(39);
        // real block of 2
        const P t8 = x20 + x39;
        const P t9 = x20 - x39;
        const P x21 = io.pair(21);
        const P x38 = io.pair(38);
        // real block of 2
        const P t10 = x21 + x38;
        const P t11 = x21 - x38;
        const P x25 = io.pair(25);
        const P x34 = io.pair(34);
        // real block of 2
        const P t12 = x25 + x34;
        const P t13 = x25 - x34;
        const P x41 = io.pair(41);
        const P x18 = io.pair(18);
        // real block of 2
        const P t14 = x41 + x18;
        const P t15 = x41 - x18;
        const P x46 = io.pair(46);
        const P x13 = io.pair(13);
        // real block of 2
        const P t16 = x46 + x13;
        const P t17 = x46 - x13;
        const P x7 = io.pair(7);
        const P x52 = io.pair(52);
        // real block of 2
        const P t18 = x7 + x52;
        const P t19 = x7 - x52;
        const P x28 = io.pair(28);
        const P x31 = io.pair(31);
        // real block of 2
        const P t20 = x28 + x31;
        const P t21 = x28 - x31;
        const P x53 = io.pair(53);
        const P x6 = io.pair(6);
        // real block of 2
        const P t22 = x53 + x6;
        const P t23 = x53 - x6;
        const P x35 = io.pair(35);
        const P x24 = io.pair(24);
        // real block of 2
        const P t24 = x35 + x24;
        const P t25 = x35 - x24;
        const P x22 = io.pair(22);
        const P x37 = io.pair(37);
        // real block of 2
        const P t26 = x22 + x37;
        const P t27 = x22 - x37;
        const P x29 = io.pair(29);
        const P x30 = io.pair(30);
        // real block of 2
        const P t28 = x29 + x30;
        const P t29 = x29 - x30;
        const P x57 = io.pair(57);
        const P x2 = io.pair(2);
        // real block of 2
        const P t30 = x57 + x2;
        const P t31 = x57 - x2;
        const P x51 = io.pair(51);
        const P x8 = io.pair(8);
        // real block of 2
        const P t32 = x51 + x8;
        const P t33 = x51 - x8;
        const P x27 = io.pair(27);
        const P x32 = io.pair(32);
        // real block of 2
        const P t34 = x27 + x32;
        const P t35 = x27 - x32;
        const P x49 = io.pair(49);
        const P x10 = io.pair(10);
        // real block of 2
        const P t36 = x49 + x10;
        const P t37 = x49 - x10;
        const P x19 = io.pair(19);
        const P x40 = io.pair(40);
        // real block of 2
        const P t38 = x19 + x40;
        const P t39 = x19 - x40;
        const P x17 = io.pair(17);
        const P x42 = io.pair(42);
        // real block of 2
        const P t40 = x17 + x42;
        const P t41 = x17 - x42;
        const P x9 = io.pair(9);
        const P x50 = io.pair(50);
        // real block of 2
        const P t42 = x9 + x50;
        const P t43 = x9 - x50;
        const P x36 = io.pair(36);
        const P x23 = io.pair(23);
        // real block of 2
        const P t44 = x36 + x23;
        const P t45 = x36 - x23;
        const P x26 = io.pair(26);
        const P x33 = io.pair(33);
        // real block of 2
        const P t46 = x26 + x33;
        const P t47 = x26 - x33;
        const P x45 = io.pair(45);
        const P x14 = io.pair(14);
        // real block of 2
        const P t48 = x45 + x14;
        const P t49 = x45 - x14;
        const P x3 = io.pair(3);
        const P x56 = io.pair(56);
        // real block of 2
        const P t50 = x3 + x56;
        const P t51 = x3 - x56;
        const P x12 = io.pair(12);
        const P x47 = io.pair(47);
        // real block of 2
        const P t52 = x12 + x47;
        const P t53 = x12 - x47;
        const P x48 = io.pair(48);
        const P x11 = io.pair(11);
        // real block of 2
        const P t54 = x48 + x11;
        const P t55 = x48 - x11;
        const P x15 = io.pair(15);
        const P x44 = io.pair(44);
        // real block of 2
        const P t56 = x15 + x44;
        const P t57 = x15 - x44;
        // real block of 7, multiplier 4
        const P t58 = t32 + t40;
        const P t59 = t32 - t40;
        const P t60 = t46 + t48;
        const P t61 = t46 - t48;
        const P t62 = t50 + t14;
        const P t63 = t50 - t14;
        const P t64 = t58 + t60;
        const P t65 = t64 + t62;
        const P t66 = t65 + t2;
        const P t67 = c[0] * t58;
        const P t68 = t2 - t67;
        const P t69 = c[1] * t60;
        const P t70 = t68 + t69;
        const P t71 = c[2] * t62;
        const P t72 = t70 - t71;
        const P t73 = c[3] * t59;
        const P t74 = c[4] * t61;
        const P t75 = t73 + t74;
        const P t76 = c[5] * t63;
        const P t77 = t75 - t76;
        const P t78 = c[1] * t58;
        const P t79 = c[2] * t60;
        const P t80 = t78 - t79;
        const P t81 = c[0] * t62;
        const P t82 = t80 - t81;
        const P t83 = t82 + t2;
        const P t84 = c[5] * t61;
        const P t85 = c[3] * t63;
        const P t86 = t84 + t85;
        const P t87 = c[4] * t59;
        const P t88 = t86 - t87;
        const P t89 = c[2] * t58;
        const P t90 = t2 - t89;
        const P t91 = c[0] * t60;
        const P t92 = t90 - t91;
        const P t93 = c[1] * t62;
        const P t94 = t92 + t93;
        const P t95 = c[5] * t59;
        const P t96 = c[3] * t61;
        const P t97 = t95 + t96;
        const P t98 = c[4] * t63;
        const P t99 = t97 + t98;
        // real block of 7, multiplier 4
        const P t100 = t36 + t16;
        const P t101 = t36 - t16;
        const P t102 = t30 + t54;
        const P t103 = t30 - t54;
        const P t104 = t20 + t52;
        const P t105 = t20 - t52;
        const P t106 = t100 + t102;
        const P t107 = t106 + t104;
        const P t108 = t107 + t24;
        const P t109 = c[0] * t100;
        const P t110 = t24 - t109;
        const P t111 = c[1] * t102;
        const P t112 = t110 + t111;
        const P t113 = c[2] * t104;
        const P t114 = t112 - t113;
        const P t115 = c[3] * t101;
        const P t116 = c[4] * t103;
        const P t117 = t115 + t116;
        const P t118 = c[5] * t105;
        const P t119 = t117 - t118;
        const P t120 = c[1] * t100;
        const P t121 = c[2] * t102;
        const P t122 = t120 - t121;
        const P t123 = c[0] * t104;
        const P t124 = t122 - t123;
        const P t125 = t124 + t24;
        const P t126 = c[5] * t103;
        const P t127 = c[3] * t105;
        const P t128 = t126 + t127;
        const P t129 = c[4] * t101;
        const P t130 = t128 - t129;
        const P t131 = c[2] * t100;
        const P t132 = t24 - t131;
        const P t133 = c[0] * t102;
        const P t134 = t132 - t133;
        const P t135 = c[1] * t104;
        const P t136 = t134 + t135;
        const P t137 = c[5] * t101;
        const P t138 = c[3] * t103;
        const P t139 = t137 + t138;
        const P t140 = c[4] * t105;
        const P t141 = t139 + t140;
        // real block of 7, multiplier 4
        const P t142 = t26 + t18;
        const P t143 = t26 - t18;
        const P t144 = t12 + t10;
        const P t145 = t12 - t10;
        const P t146 = t8 + t44;
        const P t147 = t8 - t44;
        const P t148 = t142 + t144;
        const P t149 = t148 + t146;
        const P t150 = t149 + t56;
        const P t151 = c[0] * t142;
        const P t152 = t56 - t151;
        const P t153 = c[1] * t144;
        const P t154 = t152 + t153;
        const P t155 = c[2] * t146;
        const P t156 = t154 - t155;
        const P t157 = c[3] * t143;
        const P t158 = c[4] * t145;
        const P t159 = t157 + t158;
        const P t160 = c[5] * t147;
        const P t161 = t159 - t160;
        const P t162 = c[1] * t142;
        const P t163 = c[2] * t144;
        const P t164 = t162 - t163;
        const P t165 = c[0] * t146;
        const P t166 = t164 - t165;
        const P t167 = t166 + t56;
        const P t168 = c[5] * t145;
        const P t169 = c[3] * t147;
        const P t170 = t168 + t169;
        const P t171 = c[4] * t143;
        const P t172 = t170 - t171;
        const P t173 = c[2] * t142;
        const P t174 = t56 - t173;
        const P t175 = c[0] * t144;
        const P t176 = t174 - t175;
        const P t177 = c[1] * t146;
        const P t178 = t176 + t177;
        const P t179 = c[5] * t143;
        const P t180 = c[3] * t145;
        const P t181 = t179 + t180;
        const P t182 = c[4] * t147;
        const P t183 = t181 + t182;
        // real block of 7, multiplier 4
        const P t184 = t22 + t42;
        const P t185 = t22 - t42;
        const P t186 = t28 + t4;
        const P t187 = t28 - t4;
        const P t188 = t38 + t6;
        const P t189 = t38 - t6;
        const P t190 = t184 + t186;
        const P t191 = t190 + t188;
        const P t192 = t191 + t34;
        const P t193 = c[0] * t184;
        const P t194 = t34 - t193;
        const P t195 = c[1] * t186;
        const P t196 = t194 + t195;
        const P t197 = c[2] * t188;
        const P t198 = t196 - t197;
        const P t199 = c[3] * t185;
        const P t200 = c[4] * t187;
        const P t201 = t199 + t200;
        const P t202 = c[5] * t189;
        const P t203 = t201 - t202;
        const P t204 = c[1] * t184;
        const P t205 = c[2] * t186;
        const P t206 = t204 - t205;
        const P t207 = c[0] * t188;
        const P t208 = t206 - t207;
        const P t209 = t208 + t34;
        const P t210 = c[5] * t187;
        const P t211 = c[3] * t189;
        const P t212 = t210 + t211;
        const P t213 = c[4] * t185;
        const P t214 = t212 - t213;
        const P t215 = c[2] * t184;
        const P t216 = t34 - t215;
        const P t217 = c[0] * t186;
        const P t218 = t216 - t217;
        const P t219 = c[1] * t188;
        const P t220 = t218 + t219;
        const P t221 = c[5] * t185;
        const P t222 = c[3] * t187;
        const P t223 = t221 + t222;
        const P t224 = c[4] * t189;
        const P t225 = t223 + t224;
        // real block of 2
        const P t226 = t66 + t150;
        const P t227 = t66 - t150;
        // real block of 2
        const P t228 = t108 + t192;
        const P t229 = t108 - t192;
        // real block of 2
        const P t230 = t226 + t228;
        const P t231 = t226 - t228;
        // complex block of 2
        const P t232 = t72 + t156;
        const P t233 = t77 + t161;
        const P t234 = t72 - t156;
        const P t235 = t77 - t161;
        // complex block of 2
        const P t236 = t114 + t198;
        const P t237 = t119 + t203;
        const P t238 = t114 - t198;
        const P t239 = t119 - t203;
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
        const P t248 = t83 + t167;
        const P t249 = t88 + t172;
        const P t250 = t83 - t167;
        const P t251 = t88 - t172;
        // complex block of 2
        const P t252 = t125 + t209;
        const P t253 = t130 + t214;
        const P t254 = t125 - t209;
        const P t255 = t130 - t214;
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
        // complex block of 2
        const P t264 = t94 + t178;
        const P t265 = t99 + t183;
        const P t266 = t94 - t178;
        const P t267 = t99 - t183;
        // complex block of 2
        const P t268 = t136 + t220;
        const P t269 = t141 + t225;
        const P t270 = t136 - t220;
        const P t271 = t141 - t225;
        // complex block of 2
        const P t272 = t264 + t268;
        const P t273 = t265 + t269;
        const P t274 = t264 - t268;
        const P t275 = t265 - t269;
        // complex block of 2
        const P t276 = t266 - t271;
        const P t277 = t267 + t270;
        const P t278 = t266 + t271;
        const P t279 = t267 - t270;
        // real block of 29, multiplier 2
        const P t280 = t0 + t230;
        const P t281 = c[32] * t230;
        const P t282 = t0 - t281;
        const P t283 = c[6] * t262;
        const P t284 = c[7] * t263;
        const P t285 = t283 + t284;
        const P t286 = c[6] * t263;
        const P t287 = c[7] * t262;
        const P t288 = t286 - t287;
        const P t289 = c[8] * t274;
        const P t290 = c[9] * t275;
        const P t291 = t289 + t290;
        const P t292 = c[9] * t274;
        const P t293 = c[8] * t275;
        const P t294 = t292 - t293;
        const P t295 = c[10] * t246;
        const P t296 = c[11] * t247;
        const P t297 = t295 + t296;
        const P t298 = c[11] * t246;
        const P t299 = c[10] * t247;
        const P t300 = t298 - t299;
        const P t301 = c[12] * t240;
        const P t302 = c[13] * t241;
        const P t303 = t301 + t302;
        const P t304 = c[12] * t241;
        const P t305 = c[13] * t240;
        const P t306 = t304 - t305;
        const P t307 = c[14] * t279;
        const P t308 = c[15] * t278;
        const P t309 = t307 - t308;
        const P t310 = c[15] * t279;
        const P t311 = c[14] * t278;
        const P t312 = t310 + t311;
        const P t313 = c[16] * t258;
        const P t314 = c[17] * t259;
        const P t315 = t313 - t314;
        const P t316 = c[16] * t259;
        const P t317 = c[17] * t258;
        const P t318 = t316 + t317;
        const P t319 = c[18] * t227;
        const P t320 = c[19] * t229;
        const P t321 = t319 - t320;
        const P t322 = c[18] * t229;
        const P t323 = c[19] * t227;
        const P t324 = t322 + t323;
        const P t325 = c[20] * t256;
        const P t326 = c[21] * t257;
        const P t327 = t325 - t326;
        const P t328 = c[20] * t257;
        const P t329 = c[21] * t256;
        const P t330 = t328 + t329;
        const P t331 = c[22] * t277;
        const P t332 = c[23] * t276;
        const P t333 = t331 - t332;
        const P t334 = c[23] * t277;
        const P t335 = c[22] * t276;
        const P t336 = t334 + t335;
        const P t337 = c[24] * t242;
        const P t338 = c[25] * t243;
        const P t339 = t337 + t338;
        const P t340 = c[24] * t243;
        const P t341 = c[25] * t242;
        const P t342 = t340 - t341;
        const P t343 = c[26] * t244;
        const P t344 = c[27] * t245;
        const P t345 = t343 - t344;
        const P t346 = c[26] * t245;
        const P t347 = c[27] * t244;
        const P t348 = t346 + t347;
        const P t349 = c[28] * t272;
        const P t350 = c[29] * t273;
        const P t351 = t349 + t350;
        const P t352 = c[28] * t273;
        const P t353 = c[29] * t272;
        const P t354 = t352 - t353;
        const P t355 = c[30] * t260;
        const P t356 = c[31] * t261;
        const P t357 = t355 - t356;
        const P t358 = c[30] * t261;
        const P t359 = c[31] * t260;
        const P t360 = t358 + t359;
        const P t361 = c[33] * t231;
        // spectrum block of 2
        const P t362 = t282 - t361;
        const P t363 = t282 + t361;
        // complex block of 2
        const P t364 = t306 - t342;
        const P t365 = t303 - t339;
        const P t366 = t306 + t342;
        const P t367 = t303 + t339;
        // complex block of 2
        const P t368 = t330 + t318;
        const P t369 = t327 + t315;
        const P t370 = t330 - t318;
        const P t371 = t327 - t315;
        // complex block of 2
        const P t372 = t354 - t294;
        const P t373 = t351 + t291;
        const P t374 = t354 + t294;
        const P t375 = t351 - t291;
        // spectrum block of 7, multiplier 2
        const P t376 = t365 + t369;
        const P t377 = t376 + t373;
        const P t378 = t377 + t362;
        const P t379 = c[1] * t365;
        const P t380 = c[2] * t369;
        const P t381 = t379 - t380;
        const P t382 = c[0] * t373;
        const P t383 = t381 - t382;
        const P t384 = t383 + t362;
        const P t385 = c[4] * t364;
        const P t386 = c[5] * t368;
        const P t387 = t385 + t386;
        const P t388 = c[3] * t372;
        const P t389 = t387 + t388;
        const P t390 = t384 - t389;
        const P t391 = t384 + t389;
        const P t392 = c[2] * t365;
        const P t393 = t362 - t392;
        const P t394 = c[0] * t369;
        const P t395 = t393 - t394;
        const P t396 = c[1] * t373;
        const P t397 = t395 + t396;
        const P t398 = c[5] * t364;
        const P t399 = c[3] * t368;
        const P t400 = t398 - t399;
        const P t401 = c[4] * t372;
        const P t402 = t400 - t401;
        const P t403 = t397 - t402;
        const P t404 = t397 + t402;
        const P t405 = c[0] * t365;
        const P t406 = t362 - t405;
        const P t407 = c[1] * t369;
        const P t408 = t406 + t407;
        const P t409 = c[2] * t373;
        const P t410 = t408 - t409;
        const P t411 = c[3] * t364;
        const P t412 = c[4] * t368;
        const P t413 = t411 - t412;
        const P t414 = c[5] * t372;
        const P t415 = t413 + t414;
        const P t416 = t410 - t415;
        const P t417 = t410 + t415;
        // spectrum block of 7, multiplier 2
        const P t418 = t367 + t371;
        const P t419 = t418 + t375;
        const P t420 = t419 + t363;
        const P t421 = c[1] * t367;
        const P t422 = c[2] * t371;
        const P t423 = t421 - t422;
        const P t424 = c[0] * t375;
        const P t425 = t423 - t424;
        const P t426 = t425 + t363;
        const P t427 = c[4] * t366;
        const P t428 = c[5] * t370;
        const P t429 = t427 + t428;
        const P t430 = c[3] * t374;
        const P t431 = t429 + t430;
        const P t432 = t426 - t431;
        const P t433 = t426 + t431;
        const P t434 = c[2] * t367;
        const P t435 = t363 - t434;
        const P t436 = c[0] * t371;
        const P t437 = t435 - t436;
        const P t438 = c[1] * t375;
        const P t439 = t437 + t438;
        const P t440 = c[5] * t366;
        const P t441 = c[3] * t370;
        const P t442 = t440 - t441;
        const P t443 = c[4] * t374;
        const P t444 = t442 - t443;
        const P t445 = t439 - t444;
        const P t446 = t439 + t444;
        const P t447 = c[0] * t367;
        const P t448 = t363 - t447;
        const P t449 = c[1] * t371;
        const P t450 = t448 + t449;
        const P t451 = c[2] * t375;
        const P t452 = t450 - t451;
        const P t453 = c[3] * t366;
        const P t454 = c[4] * t370;
        const P t455 = t453 - t454;
        const P t456 = c[5] * t374;
        const P t457 = t455 + t456;
        const P t458 = t452 - t457;
        const P t459 = t452 + t457;
        // complex block of 2
        const P t460 = t357 - t285;
        const P t461 = t288 - t360;
        const P t462 = t285 + t357;
        const P t463 = t288 + t360;
        // mirrored skew block of 14
        const P t464 = c[5] * t463;
        const P t465 = c[2] * t462;
        const P t466 = t464 + t465;
        const P t467 = c[2] * t463;
        const P t468 = c[5] * t462;
        const P t469 = t467 - t468;
        // complex block of 2
        const P t470 = t345 - t297;
        const P t471 = t300 + t348;
        const P t472 = t297 + t345;
        const P t473 = t300 - t348;
        // mirrored skew block of 14
        const P t474 = c[4] * t473;
        const P t475 = c[1] * t472;
        const P t476 = t474 + t475;
        const P t477 = c[1] * t473;
        const P t478 = c[4] * t472;
        const P t479 = t477 - t478;
        // complex block of 2
        const P t480 = t333 - t309;
        const P t481 = t336 - t312;
        const P t482 = t309 + t333;
        const P t483 = t312 + t336;
        // mirrored skew block of 14
        const P t484 = c[0] * t482;
        const P t485 = c[3] * t483;
        const P t486 = t484 - t485;
        const P t487 = c[3] * t482;
        const P t488 = c[0] * t483;
        const P t489 = t487 + t488;
        // spectrum block of 7, multiplier 2
        const P t490 = t481 + t471;
        const P t491 = t490 + t461;
        const P t492 = t491 + t324;
        const P t493 = c[1] * t481;
        const P t494 = c[2] * t471;
        const P t495 = t493 - t494;
        const P t496 = c[0] * t461;
        const P t497 = t495 - t496;
        const P t498 = t497 + t324;
        const P t499 = c[4] * t480;
        const P t500 = c[5] * t470;
        const P t501 = t499 + t500;
        const P t502 = c[3] * t460;
        const P t503 = t501 + t502;
        const P t504 = t498 + t503;
        const P t505 = t498 - t503;
        const P t506 = c[2] * t481;
        const P t507 = t324 - t506;
        const P t508 = c[0] * t471;
        const P t509 = t507 - t508;
        const P t510 = c[1] * t461;
        const P t511 = t509 + t510;
        const P t512 = c[3] * t470;
        const P t513 = c[5] * t480;
        const P t514 = t512 - t513;
        const P t515 = c[4] * t460;
        const P t516 = t514 + t515;
        const P t517 = t511 - t516;
        const P t518 = t511 + t516;
        const P t519 = c[0] * t481;
        const P t520 = t324 - t519;
        const P t521 = c[1] * t471;
        const P t522 = t520 + t521;
        const P t523 = c[2] * t461;
        const P t524 = t522 - t523;
        const P t525 = c[4] * t470;
        const P t526 = c[3] * t480;
        const P t527 = t525 - t526;
        const P t528 = c[5] * t460;
        const P t529 = t527 - t528;
        const P t530 = t524 - t529;
        const P t531 = t524 + t529;
        // spectrum block of 7, multiplier 2
        const P t532 = t486 + t476;
        const P t533 = t532 + t466;
        const P t534 = t533 + t321;
        const P t535 = c[1] * t486;
        const P t536 = c[2] * t476;
        const P t537 = t535 - t536;
        const P t538 = c[0] * t466;
        const P t539 = t537 - t538;
        const P t540 = t539 + t321;
        const P t541 = c[4] * t489;
        const P t542 = c[5] * t479;
        const P t543 = t541 - t542;
        const P t544 = c[3] * t469;
        const P t545 = t543 - t544;
        const P t546 = t540 - t545;
        const P t547 = t540 + t545;
        const P t548 = c[2] * t486;
        const P t549 = t321 - t548;
        const P t550 = c[0] * t476;
        const P t551 = t549 - t550;
        const P t552 = c[1] * t466;
        const P t553 = t551 + t552;
        const P t554 = c[5] * t489;
        const P t555 = c[3] * t479;
        const P t556 = t554 + t555;
        const P t557 = c[4] * t469;
        const P t558 = t556 + t557;
        const P t559 = t553 - t558;
        const P t560 = t553 + t558;
        const P t561 = c[0] * t486;
        const P t562 = t321 - t561;
        const P t563 = c[1] * t476;
        const P t564 = t562 + t563;
        const P t565 = c[2] * t466;
        const P t566 = t564 - t565;
        const P t567 = c[3] * t489;
        const P t568 = c[4] * t479;
        const P t569 = t567 + t568;
        const P t570 = c[5] * t469;
        const P t571 = t569 - t570;
        const P t572 = t566 - t571;
        const P t573 = t566 + t571;
        // real block of 7, multiplier 4
        const P t574 = t33 + t41;
        const P t575 = t33 - t41;
        const P t576 = t47 + t49;
        const P t577 = t47 - t49;
        const P t578 = t51 + t15;
        const P t579 = t51 - t15;
        const P t580 = t574 + t576;
        const P t581 = t580 + t578;
        const P t582 = t581 + t3;
        const P t583 = c[0] * t574;
        const P t584 = t3 - t583;
        const P t585 = c[1] * t576;
        const P t586 = t584 + t585;
        const P t587 = c[2] * t578;
        const P t588 = t586 - t587;
        const P t589 = c[3] * t575;
        const P t590 = c[4] * t577;
        const P t591 = t589 + t590;
        const P t592 = c[5] * t579;
        const P t593 = t591 - t592;
        const P t594 = c[1] * t574;
        const P t595 = c[2] * t576;
        const P t596 = t594 - t595;
        const P t597 = c[0] * t578;
        const P t598 = t596 - t597;
        const P t599 = t598 + t3;
        const P t600 = c[5] * t577;
        const P t601 = c[3] * t579;
        const P t602 = t600 + t601;
        const P t603 = c[4] * t575;
        const P t604 = t602 - t603;
        const P t605 = c[2] * t574;
        const P t606 = t3 - t605;
        const P t607 = c[0] * t576;
        const P t608 = t606 - t607;
        const P t609 = c[1] * t578;
        const P t610 = t608 + t609;
        const P t611 = c[5] * t575;
        const P t612 = c[3] * t577;
        const P t613 = t611 + t612;
        const P t614 = c[4] * t579;
        const P t615 = t613 + t614;
        // real block of 7, multiplier 4
        const P t616 = t37 + t17;
        const P t617 = t37 - t17;
        const P t618 = t31 + t55;
        const P t619 = t31 - t55;
        const P t620 = t21 + t53;
        const P t621 = t21 - t53;
        const P t622 = t616 + t618;
        const P t623 = t622 + t620;
        const P t624 = t623 + t25;
        const P t625 = c[0] * t616;
        const P t626 = t25 - t625;
        const P t627 = c[1] * t618;
        const P t628 = t626 + t627;
        const P t629 = c[2] * t620;
        const P t630 = t628 - t629;
        const P t631 = c[3] * t617;
        const P t632 = c[4] * t619;
        const P t633 = t631 + t632;
        const P t634 = c[5] * t621;
        const P t635 = t633 - t634;
        const P t636 = c[1] * t616;
        const P t637 = c[2] * t618;
        const P t638 = t636 - t637;
        const P t639 = c[0] * t620;
        const P t640 = t638 - t639;
        const P t641 = t640 + t25;
        const P t642 = c[5] * t619;
        const P t643 = c[3] * t621;
        const P t644 = t642 + t643;
        const P t645 = c[4] * t617;
        const P t646 = t644 - t645;
        const P t647 = c[2] * t616;
        const P t648 = t25 - t647;
        const P t649 = c[0] * t618;
        const P t650 = t648 - t649;
        const P t651 = c[1] * t620;
        const P t652 = t650 + t651;
        const P t653 = c[5] * t617;
        const P t654 = c[3] * t619;
        const P t655 = t653 + t654;
        const P t656 = c[4] * t621;
        const P t657 = t655 + t656;
        // real block of 7, multiplier 4
        const P t658 = t27 + t19;
        const P t659 = t27 - t19;
        const P t660 = t13 + t11;
        const P t661 = t13 - t11;
        const P t662 = t9 + t45;
        const P t663 = t9 - t45;
        const P t664 = t658 + t660;
        const P t665 = t664 + t662;
        const P t666 = t665 + t57;
        const P t667 = c[0] * t658;
        const P t668 = t57 - t667;
        const P t669 = c[1] * t660;
        const P t670 = t668 + t669;
        const P t671 = c[2] * t662;
        const P t672 = t670 - t671;
        const P t673 = c[3] * t659;
        const P t674 = c[4] * t661;
        const P t675 = t673 + t674;
        const P t676 = c[5] * t663;
        const P t677 = t675 - t676;
        const P t678 = c[1] * t658;
        const P t679 = c[2] * t660;
        const P t680 = t678 - t679;
        const P t681 = c[0] * t662;
        const P t682 = t680 - t681;
        const P t683 = t682 + t57;
        const P t684 = c[5] * t661;
        const P t685 = c[3] * t663;
        const P t686 = t684 + t685;
        const P t687 = c[4] * t659;
        const P t688 = t686 - t687;
        const P t689 = c[2] * t658;
        const P t690 = t57 - t689;
        const P t691 = c[0] * t660;
        const P t692 = t690 - t691;
        const P t693 = c[1] * t662;
        const P t694 = t692 + t693;
        const P t695 = c[5] * t659;
        const P t696 = c[3] * t661;
        const P t697 = t695 + t696;
        const P t698 = c[4] * t663;
        const P t699 = t697 + t698;
        // real block of 7, multiplier 4
        const P t700 = t23 + t43;
        const P t701 = t23 - t43;
        const P t702 = t29 + t5;
        const P t703 = t29 - t5;
        const P t704 = t39 + t7;
        const P t705 = t39 - t7;
        const P t706 = t700 + t702;
        const P t707 = t706 + t704;
        const P t708 = t707 + t35;
        const P t709 = c[0] * t700;
        const P t710 = t35 - t709;
        const P t711 = c[1] * t702;
        const P t712 = t710 + t711;
        const P t713 = c[2] * t704;
        const P t714 = t712 - t713;
        const P t715 = c[3] * t701;
        const P t716 = c[4] * t703;
        const P t717 = t715 + t716;
        const P t718 = c[5] * t705;
        const P t719 = t717 - t718;
        const P t720 = c[1] * t700;
        const P t721 = c[2] * t702;
        const P t722 = t720 - t721;
        const P t723 = c[0] * t704;
        const P t724 = t722 - t723;
        const P t725 = t724 + t35;
        const P t726 = c[5] * t703;
        const P t727 = c[3] * t705;
        const P t728 = t726 + t727;
        const P t729 = c[4] * t701;
        const P t730 = t728 - t729;
        const P t731 = c[2] * t700;
        const P t732 = t35 - t731;
        const P t733 = c[0] * t702;
        const P t734 = t732 - t733;
        const P t735 = c[1] * t704;
        const P t736 = t734 + t735;
        const P t737 = c[5] * t701;
        const P t738 = c[3] * t703;
        const P t739 = t737 + t738;
        const P t740 = c[4] * t705;
        const P t741 = t739 + t740;
        // real block of 2
        const P t742 = t582 + t666;
        const P t743 = t582 - t666;
        // real block of 2
        const P t744 = t624 + t708;
        const P t745 = t624 - t708;
        // real block of 2
        const P t746 = t742 + t744;
        const P t747 = t742 - t744;
        // complex block of 2
        const P t748 = t588 + t672;
        const P t749 = t593 + t677;
        const P t750 = t588 - t672;
        const P t751 = t593 - t677;
        // complex block of 2
        const P t752 = t630 + t714;
        const P t753 = t635 + t719;
        const P t754 = t630 - t714;
        const P t755 = t635 - t719;
        // complex block of 2
        const P t756 = t748 + t752;
        const P t757 = t749 + t753;
        const P t758 = t748 - t752;
        const P t759 = t749 - t753;
        // complex block of 2
        const P t760 = t750 - t755;
        const P t761 = t751 + t754;
        const P t762 = t750 + t755;
        const P t763 = t751 - t754;
        // complex block of 2
        const P t764 = t599 + t683;
        const P t765 = t604 + t688;
        const P t766 = t599 - t683;
        const P t767 = t604 - t688;
        // complex block of 2
        const P t768 = t641 + t725;
        const P t769 = t646 + t730;
        const P t770 = t641 - t725;
        const P t771 = t646 - t730;
        // complex block of 2
        const P t772 = t764 + t768;
        const P t773 = t765 + t769;
        const P t774 = t764 - t768;
        const P t775 = t765 - t769;
        // complex block of 2
        const P t776 = t766 - t771;
        const P t777 = t767 + t770;
        const P t778 = t766 + t771;
        const P t779 = t767 - t770;
        // complex block of 2
        const P t780 = t610 + t694;
        const P t781 = t615 + t699;
        const P t782 = t610 - t694;
        const P t783 = t615 - t699;
        // complex block of 2
        const P t784 = t652 + t736;
        const P t785 = t657 + t741;
        const P t786 = t652 - t736;
        const P t787 = t657 - t741;
        // complex block of 2
        const P t788 = t780 + t784;
        const P t789 = t781 + t785;
        const P t790 = t780 - t784;
        const P t791 = t781 - t785;
        // complex block of 2
        const P t792 = t782 - t787;
        const P t793 = t783 + t786;
        const P t794 = t782 + t787;
        const P t795 = t783 - t786;
        // real block of 29, multiplier 2
        const P t796 = t1 + t746;
        const P t797 = c[32] * t746;
        const P t798 = t1 - t797;
        const P t799 = c[6] * t778;
        const P t800 = c[7] * t779;
        const P t801 = t799 + t800;
        const P t802 = c[6] * t779;
        const P t803 = c[7] * t778;
        const P t804 = t802 - t803;
        const P t805 = c[8] * t790;
        const P t806 = c[9] * t791;
        const P t807 = t805 + t806;
        const P t808 = c[9] * t790;
        const P t809 = c[8] * t791;
        const P t810 = t808 - t809;
        const P t811 = c[10] * t762;
        const P t812 = c[11] * t763;
        const P t813 = t811 + t812;
        const P t814 = c[11] * t762;
        const P t815 = c[10] * t763;
        const P t816 = t814 - t815;
        const P t817 = c[12] * t756;
        const P t818 = c[13] * t757;
        const P t819 = t817 + t818;
        const P t820 = c[12] * t757;
        const P t821 = c[13] * t756;
        const P t822 = t820 - t821;
        const P t823 = c[14] * t795;
        const P t824 = c[15] * t794;
        const P t825 = t823 - t824;
        const P t826 = c[15] * t795;
        const P t827 = c[14] * t794;
        const P t828 = t826 + t827;
        const P t829 = c[16] * t774;
        const P t830 = c[17] * t775;
        const P t831 = t829 - t830;
        const P t832 = c[16] * t775;
        const P t833 = c[17] * t774;
        const P t834 = t832 + t833;
        const P t835 = c[18] * t743;
        const P t836 = c[19] * t745;
        const P t837 = t835 - t836;
        const P t838 = c[18] * t745;
        const P t839 = c[19] * t743;
        const P t840 = t838 + t839;
        const P t841 = c[20] * t772;
        const P t842 = c[21] * t773;
        const P t843 = t841 - t842;
        const P t844 = c[20] * t773;
        const P t845 = c[21] * t772;
        const P t846 = t844 + t845;
        const P t847 = c[22] * t793;
        const P t848 = c[23] * t792;
        const P t849 = t847 - t848;
        const P t850 = c[23] * t793;
        const P t851 = c[22] * t792;
        const P t852 = t850 + t851;
        const P t853 = c[24] * t758;
        const P t854 = c[25] * t759;
        const P t855 = t853 + t854;
        const P t856 = c[24] * t759;
        const P t857 = c[25] * t758;
        const P t858 = t856 - t857;
        const P t859 = c[26] * t760;
        const P t860 = c[27] * t761;
        const P t861 = t859 - t860;
        const P t862 = c[26] * t761;
        const P t863 = c[27] * t760;
        const P t864 = t862 + t863;
        const P t865 = c[28] * t788;
        const P t866 = c[29] * t789;
        const P t867 = t865 + t866;
        const P t868 = c[28] * t789;
        const P t869 = c[29] * t788;
        const P t870 = t868 - t869;
        const P t871 = c[30] * t776;
        const P t872 = c[31] * t777;
        const P t873 = t871 - t872;
        const P t874 = c[30] * t777;
        const P t875 = c[31] * t776;
        const P t876 = t874 + t875;
        const P t877 = c[33] * t747;
        // spectrum block of 2
        const P t878 = t798 - t877;
        const P t879 = t798 + t877;
        // complex block of 2
        const P t880 = t822 - t858;
        const P t881 = t819 - t855;
        const P t882 = t822 + t858;
        const P t883 = t819 + t855;
        // complex block of 2
        const P t884 = t846 + t834;
        const P t885 = t843 + t831;
        const P t886 = t846 - t834;
        const P t887 = t843 - t831;
        // complex block of 2
        const P t888 = t870 - t810;
        const P t889 = t867 + t807;
        const P t890 = t870 + t810;
        const P t891 = t867 - t807;
        // spectrum block of 7, multiplier 2
        const P t892 = t881 + t885;
        const P t893 = t892 + t889;
        const P t894 = t893 + t878;
        const P t895 = c[1] * t881;
        const P t896 = c[2] * t885;
        const P t897 = t895 - t896;
        const P t898 = c[0] * t889;
        const P t899 = t897 - t898;
        const P t900 = t899 + t878;
        const P t901 = c[4] * t880;
        const P t902 = c[5] * t884;
        const P t903 = t901 + t902;
        const P t904 = c[3] * t888;
        const P t905 = t903 + t904;
        const P t906 = t900 - t905;
        const P t907 = t900 + t905;
        const P t908 = c[2] * t881;
        const P t909 = t878 - t908;
        const P t910 = c[0] * t885;
        const P t911 = t909 - t910;
        const P t912 = c[1] * t889;
        const P t913 = t911 + t912;
        const P t914 = c[5] * t880;
        const P t915 = c[3] * t884;
        const P t916 = t914 - t915;
        const P t917 = c[4] * t888;
        const P t918 = t916 - t917;
        const P t919 = t913 - t918;
        const P t920 = t913 + t918;
        const P t921 = c[0] * t881;
        const P t922 = t878 - t921;
        const P t923 = c[1] * t885;
        const P t924 = t922 + t923;
        const P t925 = c[2] * t889;
        const P t926 = t924 - t925;
        const P t927 = c[3] * t880;
        const P t928 = c[4] * t884;
        const P t929 = t927 - t928;
        const P t930 = c[5] * t888;
        const P t931 = t929 + t930;
        const P t932 = t926 - t931;
        const P t933 = t926 + t931;
        // spectrum block of 7, multiplier 2
        const P t934 = t883 + t887;
        const P t935 = t934 + t891;
        const P t936 = t935 + t879;
        const P t937 = c[1] * t883;
        const P t938 = c[2] * t887;
        const P t939 = t937 - t938;
        const P t940 = c[0] * t891;
        const P t941 = t939 - t940;
        const P t942 = t941 + t879;
        const P t943 = c[4] * t882;
        const P t944 = c[5] * t886;
        const P t945 = t943 + t944;
        const P t946 = c[3] * t890;
        const P t947 = t945 + t946;
        const P t948 = t942 - t947;
        const P t949 = t942 + t947;
        const P t950 = c[2] * t883;
        const P t951 = t879 - t950;
        const P t952 = c[0] * t887;
        const P t953 = t951 - t952;
        const P t954 = c[1] * t891;
        const P t955 = t953 + t954;
        const P t956 = c[5] * t882;
        const P t957 = c[3] * t886;
        const P t958 = t956 - t957;
        const P t959 = c[4] * t890;
        const P t960 = t958 - t959;
        const P t961 = t955 - t960;
        const P t962 = t955 + t960;
        const P t963 = c[0] * t883;
        const P t964 = t879 - t963;
        const P t965 = c[1] * t887;
        const P t966 = t964 + t965;
        const P t967 = c[2] * t891;
        const P t968 = t966 - t967;
        const P t969 = c[3] * t882;
        const P t970 = c[4] * t886;
        const P t971 = t969 - t970;
        const P t972 = c[5] * t890;
        const P t973 = t971 + t972;
        const P t974 = t968 - t973;
        const P t975 = t968 + t973;
        // complex block of 2
        const P t976 = t873 - t801;
        const P t977 = t804 - t876;
        const P t978 = t801 + t873;
        const P t979 = t804 + t876;
        // mirrored skew block of 14
        const P t980 = c[5] * t979;
        const P t981 = c[2] * t978;
        const P t982 = t980 + t981;
        const P t983 = c[2] * t979;
        const P t984 = c[5] * t978;
        const P t985 = t983 - t984;
        // complex block of 2
        const P t986 = t861 - t813;
        const P t987 = t816 + t864;
        const P t988 = t813 + t861;
        const P t989 = t816 - t864;
        // mirrored skew block of 14
        const P t990 = c[4] * t989;
        const P t991 = c[1] * t988;
        const P t992 = t990 + t991;
        const P t993 = c[1] * t989;
        const P t994 = c[4] * t988;
        const P t995 = t993 - t994;
        // complex block of 2
        const P t996 = t849 - t825;
        const P t997 = t852 - t828;
        const P t998 = t825 + t849;
        const P t999 = t828 + t852;
        // mirrored skew block of 14
        const P t1000 = c[0] * t998;
        const P t1001 = c[3] * t999;
        const P t1002 = t1000 - t1001;
        const P t1003 = c[3] * t998;
        const P t1004 = c[0] * t999;
        const P t1005 = t1003 + t1004;
        // spectrum block of 7, multiplier 2
        const P t1006 = t997 + t987;
        const P t1007 = t1006 + t977;
        const P t1008 = t1007 + t840;
        const P t1009 = c[1] * t997;
        const P t1010 = c[2] * t987;
        const P t1011 = t1009 - t1010;
        const P t1012 = c[0] * t977;
        const P t1013 = t1011 - t1012;
        const P t1014 = t1013 + t840;
        const P t1015 = c[4] * t996;
        const P t1016 = c[5] * t986;
        const P t1017 = t1015 + t1016;
        const P t1018 = c[3] * t976;
        const P t1019 = t1017 + t1018;
        const P t1020 = t1014 + t1019;
        const P t1021 = t1014 - t1019;
        const P t1022 = c[2] * t997;
        const P t1023 = t840 - t1022;
        const P t1024 = c[0] * t987;
        const P t1025 = t1023 - t1024;
        const P t1026 = c[1] * t977;
        const P t1027 = t1025 + t1026;
        const P t1028 = c[3] * t986;
        const P t1029 = c[5] * t996;
        const P t1030 = t1028 - t1029;
        const P t1031 = c[4] * t976;
        const P t1032 = t1030 + t1031;
        const P t1033 = t1027 - t1032;
        const P t1034 = t1027 + t1032;
        const P t1035 = c[0] * t997;
        const P t1036 = t840 - t1035;
        const P t1037 = c[1] * t987;
        const P t1038 = t1036 + t1037;
        const P t1039 = c[2] * t977;
        const P t1040 = t1038 - t1039;
        const P t1041 = c[4] * t986;
        const P t1042 = c[3] * t996;
        const P t1043 = t1041 - t1042;
        const P t1044 = c[5] * t976;
        const P t1045 = t1043 - t1044;
        const P t1046 = t1040 - t1045;
        const P t1047 = t1040 + t1045;
        // spectrum block of 7, multiplier 2
        const P t1048 = t1002 + t992;
        const P t1049 = t1048 + t982;
        const P t1050 = t1049 + t837;
        const P t1051 = c[1] * t1002;
        const P t1052 = c[2] * t992;
        const P t1053 = t1051 - t1052;
        const P t1054 = c[0] * t982;
        const P t1055 = t1053 - t1054;
        const P t1056 = t1055 + t837;
        const P t1057 = c[4] * t1005;
        const P t1058 = c[5] * t995;
        const P t1059 = t1057 - t1058;
        const P t1060 = c[3] * t985;
        const P t1061 = t1059 - t1060;
        const P t1062 = t1056 - t1061;
        const P t1063 = t1056 + t1061;
        const P t1064 = c[2] * t1002;
        const P t1065 = t837 - t1064;
        const P t1066 = c[0] * t992;
        const P t1067 = t1065 - t1066;
        const P t1068 = c[1] * t982;
        const P t1069 = t1067 + t1068;
        const P t1070 = c[5] * t1005;
        const P t1071 = c[3] * t995;
        const P t1072 = t1070 + t1071;
        const P t1073 = c[4] * t985;
        const P t1074 = t1072 + t1073;
        const P t1075 = t1069 - t1074;
        const P t1076 = t1069 + t1074;
        const P t1077 = c[0] * t1002;
        const P t1078 = t837 - t1077;
        const P t1079 = c[1] * t992;
        const P t1080 = t1078 + t1079;
        const P t1081 = c[2] * t982;
        const P t1082 = t1080 - t1081;
        const P t1083 = c[3] * t1005;
        const P t1084 = c[4] * t995;
        const P t1085 = t1083 + t1084;
        const P t1086 = c[5] * t985;
        const P t1087 = t1085 - t1086;
        const P t1088 = t1082 - t1087;
        const P t1089 = t1082 + t1087;
        const P x0 = io.pair(0);
        // complex block of 59
        const P t1090 = x0 + t280;
        io.pair(0, t1090);
        const P t1091 = c[90] * t280;
        const P t1092 = x0 - t1091;
        const P t1093 = shuffled<1, 0>(t948);
        const P t1094 = c[34] * t1093;
        const P t1095 = shuffled<1, 0>(t1050);
        const P t1096 = c[35] * t1095;
        const P t1097 = t1094 + t1096;
        const P t1098 = P(-c[35], c[35]) * t1093;
        const P t1099 = P(c[34], -c[34]) * t1095;
        const P t1100 = t1098 + t1099;
        const P t1101 = c[36] * t378;
        const P t1102 = c[37] * t492;
        const P t1103 = t1101 + t1102;
        const P t1104 = c[36] * t492;
        const P t1105 = c[37] * t378;
        const P t1106 = t1104 - t1105;
        const P t1107 = shuffled<1, 0>(t1034);
        const P t1108 = P(-c[38], c[38]) * t1107;
        const P t1109 = shuffled<1, 0>(t932);
        const P t1110 = P(c[39], -c[39]) * t1109;
        const P t1111 = t1108 + t1110;
        const P t1112 = c[39] * t1107;
        const P t1113 = c[38] * t1109;
        const P t1114 = t1112 + t1113;
        const P t1115 = c[40] * t547;
        const P t1116 = c[41] * t433;
        const P t1117 = t1115 - t1116;
        const P t1118 = c[41] * t547;
        const P t1119 = c[40] * t433;
        const P t1120 = t1118 + t1119;
        const P t1121 = shuffled<1, 0>(t936);
        const P t1122 = c[42] * t1121;
        const P t1123 = shuffled<1, 0>(t1088);
        const P t1124 = c[43] * t1123;
        const P t1125 = t1122 + t1124;
        const P t1126 = P(-c[43], c[43]) * t1121;
        const P t1127 = P(c[42], -c[42]) * t1123;
        const P t1128 = t1126 + t1127;
        const P t1129 = c[44] * t445;
        const P t1130 = c[45] * t573;
        const P t1131 = t1129 + t1130;
        const P t1132 = c[45] * t445;
        const P t1133 = c[44] * t573;
        const P t1134 = t1132 - t1133;
        const P t1135 = shuffled<1, 0>(t1062);
        const P t1136 = P(-c[46], c[46]) * t1135;
        const P t1137 = shuffled<1, 0>(t974);
        const P t1138 = P(c[47], -c[47]) * t1137;
        const P t1139 = t1136 + t1138;
        const P t1140 = c[47] * t1135;
        const P t1141 = c[46] * t1137;
        const P t1142 = t1140 + t1141;
        const P t1143 = c[48] * t404;
        const P t1144 = c[49] * t505;
        const P t1145 = t1143 + t1144;
        const P t1146 = c[49] * t404;
        const P t1147 = c[48] * t505;
        const P t1148 = t1146 - t1147;
        const P t1149 = shuffled<1, 0>(t1075);
        const P t1150 = P(-c[50], c[50]) * t1149;
        const P t1151 = shuffled<1, 0>(t962);
        const P t1152 = P(c[51], -c[51]) * t1151;
        const P t1153 = t1150 + t1152;
        const P t1154 = c[51] * t1149;
        const P t1155 = c[50] * t1151;
        const P t1156 = t1154 + t1155;
        const P t1157 = c[52] * t391;
        const P t1158 = c[53] * t530;
        const P t1159 = t1157 + t1158;
        const P t1160 = c[53] * t391;
        const P t1161 = c[52] * t530;
        const P t1162 = t1160 - t1161;
        const P t1163 = shuffled<1, 0>(t933);
        const P t1164 = P(-c[54], c[54]) * t1163;
        const P t1165 = shuffled<1, 0>(t1033);
        const P t1166 = P(c[55], -c[55]) * t1165;
        const P t1167 = t1164 + t1166;
        const P t1168 = c[54] * t1165;
        const P t1169 = c[55] * t1163;
        const P t1170 = t1168 + t1169;
        const P t1171 = c[56] * t531;
        const P t1172 = c[57] * t390;
        const P t1173 = t1171 - t1172;
        const P t1174 = c[57] * t531;
        const P t1175 = c[56] * t390;
        const P t1176 = t1174 + t1175;
        const P t1177 = shuffled<1, 0>(t975);
        const P t1178 = c[58] * t1177;
        const P t1179 = shuffled<1, 0>(t1076);
        const P t1180 = c[59] * t1179;
        const P t1181 = t1178 + t1180;
        const P t1182 = P(-c[59], c[59]) * t1177;
        const P t1183 = P(c[58], -c[58]) * t1179;
        const P t1184 = t1182 + t1183;
        const P t1185 = c[60] * t403;
        const P t1186 = c[61] * t504;
        const P t1187 = t1185 + t1186;
        const P t1188 = c[61] * t403;
        const P t1189 = c[60] * t504;
        const P t1190 = t1188 - t1189;
        const P t1191 = shuffled<1, 0>(t1020);
        const P t1192 = P(-c[62], c[62]) * t1191;
        const P t1193 = shuffled<1, 0>(t919);
        const P t1194 = P(c[63], -c[63]) * t1193;
        const P t1195 = t1192 + t1194;
        const P t1196 = c[63] * t1191;
        const P t1197 = c[62] * t1193;
        const P t1198 = t1196 + t1197;
        const P t1199 = c[64] * t459;
        const P t1200 = c[65] * t560;
        const P t1201 = t1199 + t1200;
        const P t1202 = c[64] * t560;
        const P t1203 = c[65] * t459;
        const P t1204 = t1202 - t1203;
        const P t1205 = shuffled<1, 0>(t906);
        const P t1206 = c[66] * t1205;
        const P t1207 = shuffled<1, 0>(t1047);
        const P t1208 = c[67] * t1207;
        const P t1209 = t1206 + t1208;
        const P t1210 = P(-c[66], c[66]) * t1207;
        const P t1211 = P(c[67], -c[67]) * t1205;
        const P t1212 = t1210 + t1211;
        const P t1213 = c[68] * t417;
        const P t1214 = c[69] * t517;
        const P t1215 = t1213 - t1214;
        const P t1216 = c[68] * t517;
        const P t1217 = c[69] * t417;
        const P t1218 = t1216 + t1217;
        const P t1219 = shuffled<1, 0>(t1046);
        const P t1220 = P(-c[70], c[70]) * t1219;
        const P t1221 = shuffled<1, 0>(t907);
        const P t1222 = P(c[71], -c[71]) * t1221;
        const P t1223 = t1220 + t1222;
        const P t1224 = c[71] * t1219;
        const P t1225 = c[70] * t1221;
        const P t1226 = t1224 + t1225;
        const P t1227 = c[72] * t446;
        const P t1228 = c[73] * t559;
        const P t1229 = t1227 + t1228;
        const P t1230 = c[73] * t446;
        const P t1231 = c[72] * t559;
        const P t1232 = t1230 - t1231;
        const P t1233 = shuffled<1, 0>(t920);
        const P t1234 = c[74] * t1233;
        const P t1235 = shuffled<1, 0>(t1021);
        const P t1236 = c[75] * t1235;
        const P t1237 = t1234 + t1236;
        const P t1238 = P(-c[74], c[74]) * t1235;
        const P t1239 = P(c[75], -c[75]) * t1233;
        const P t1240 = t1238 + t1239;
        const P t1241 = c[76] * t458;
        const P t1242 = c[77] * t546;
        const P t1243 = t1241 + t1242;
        const P t1244 = c[77] * t458;
        const P t1245 = c[76] * t546;
        const P t1246 = t1244 - t1245;
        const P t1247 = shuffled<1, 0>(t961);
        const P t1248 = c[78] * t1247;
        const P t1249 = shuffled<1, 0>(t1089);
        const P t1250 = c[79] * t1249;
        const P t1251 = t1248 + t1250;
        const P t1252 = P(-c[79], c[79]) * t1247;
        const P t1253 = P(c[78], -c[78]) * t1249;
        const P t1254 = t1252 + t1253;
        const P t1255 = c[80] * t572;
        const P t1256 = c[81] * t420;
        const P t1257 = t1255 - t1256;
        const P t1258 = c[81] * t572;
        const P t1259 = c[80] * t420;
        const P t1260 = t1258 + t1259;
        const P t1261 = shuffled<1, 0>(t949);
        const P t1262 = c[82] * t1261;
        const P t1263 = shuffled<1, 0>(t1063);
        const P t1264 = c[83] * t1263;
        const P t1265 = t1262 + t1264;
        const P t1266 = P(-c[82], c[82]) * t1263;
        const P t1267 = P(c[83], -c[83]) * t1261;
        const P t1268 = t1266 + t1267;
        const P t1269 = c[84] * t416;
        const P t1270 = c[85] * t518;
        const P t1271 = t1269 + t1270;
        const P t1272 = c[85] * t416;
        const P t1273 = c[84] * t518;
        const P t1274 = t1272 - t1273;
        const P t1275 = shuffled<1, 0>(t1008);
        const P t1276 = P(-c[86], c[86]) * t1275;
        const P t1277 = shuffled<1, 0>(t894);
        const P t1278 = P(c[87], -c[87]) * t1277;
        const P t1279 = t1276 + t1278;
        const P t1280 = c[87] * t1275;
        const P t1281 = c[86] * t1277;
        const P t1282 = t1280 + t1281;
        const P t1283 = c[88] * t432;
        const P t1284 = c[89] * t534;
        const P t1285 = t1283 + t1284;
        const P t1286 = c[89] * t432;
        const P t1287 = c[88] * t534;
        const P t1288 = t1286 - t1287;
        // real block of 7
        const P t1289 = t1184 - t1100;
        const P t1290 = flipped<0, 1>(t1254);
        const P t1291 = t1142 + t1290;
        const P t1292 = flipped<1, 0>(t1291);
        const P t1293 = t1289 + t1292;
        const P t1294 = flipped<1, 0>(t1156);
        const P t1295 = t1294 + t1128;
        const P t1296 = t1293 + t1295;
        const P t1297 = t1296 - t1268;
        const P t1298 = flipped<0, 1>(t1198);
        // real block of 7
        const P t1299 = t1240 + t1298;
        const P t1300 = shuffled<0, 3>(t1114, t1170);
        const P t1301 = shuffled<0, 3>(t1170, t1114);
        const P t1302 = t1300 - t1301;
        const P t1303 = t1299 + t1302;
        const P t1304 = flipped<0, 1>(t1226);
        const P t1305 = t1212 + t1304;
        const P t1306 = t1303 + t1305;
        const P t1307 = flipped<0, 1>(t1282);
        const P t1308 = t1306 + t1307;
        // spectrum block of 29, multiplier 2
        const P t1309 = c[19] * t1297;
        const P t1310 = c[18] * t1308;
        const P t1311 = t1309 + t1310;
        const P t1312 = flipped<0, 1>(t1128);
        // real block of 7
        const P t1313 = t1156 + t1312;
        const P t1314 = t1184 + t1100;
        const P t1315 = flipped<1, 0>(t1142);
        const P t1316 = t1315 + t1254;
        const P t1317 = P(-c[5], c[5]) * t1314;
        const P t1318 = c[4] * t1313;
        const P t1319 = c[3] * t1316;
        const P t1320 = shuffled<0, 3>(t1318, t1319);
        const P t1321 = t1317 + t1320;
        const P t1322 = shuffled<0, 3>(t1319, t1318);
        const P t1323 = flipped<1, 0>(t1322);
        const P t1324 = t1321 + t1323;
        const P t1325 = c[2] * t1289;
        const P t1326 = t1268 + t1325;
        const P t1327 = flipped<1, 0>(t1326);
        const P t1328 = c[0] * t1291;
        const P t1329 = t1327 + t1328;
        const P t1330 = c[1] * t1295;
        const P t1331 = flipped<0, 1>(t1329);
        const P t1332 = t1330 + t1331;
        // skew block of 14
        const P t1333 = c[4] * t1324;
        const P t1334 = P(c[1], -c[1]) * t1332;
        const P t1335 = t1333 + t1334;
        // real block of 7
        const P t1336 = t1170 + t1114;
        const P t1337 = t1240 - t1298;
        const P t1338 = flipped<1, 0>(t1212);
        const P t1339 = t1226 + t1338;
        const P t1340 = c[3] * t1336;
        const P t1341 = c[4] * t1339;
        const P t1342 = shuffled<0, 3>(t1340, t1341);
        const P t1343 = c[5] * t1337;
        const P t1344 = t1342 - t1343;
        const P t1345 = shuffled<0, 3>(t1341, t1340);
        const P t1346 = t1344 - t1345;
        const P t1347 = flipped<1, 0>(t1346);
        // complex block of 2
        const P t1348 = t1347 + t1335;
        // real block of 7
        const P t1349 = P(-c[2], c[2]) * t1299;
        const P t1350 = t1282 + t1349;
        const P t1351 = P(-c[0], c[0]) * t1302;
        const P t1352 = t1350 + t1351;
        const P t1353 = c[1] * t1305;
        const P t1354 = flipped<0, 1>(t1352);
        const P t1355 = t1353 + t1354;
        // skew block of 14
        const P t1356 = c[4] * t1332;
        const P t1357 = P(-c[1], c[1]) * t1324;
        const P t1358 = t1356 + t1357;
        // complex block of 2
        const P t1359 = t1355 - t1358;
        // spectrum block of 29, multiplier 2
        const P t1360 = c[27] * t1348;
        const P t1361 = P(c[26], -c[26]) * t1359;
        const P t1362 = t1360 + t1361;
        // complex block of 2
        const P t1363 = t1335 - t1347;
        const P t1364 = t1355 + t1358;
        // spectrum block of 29, multiplier 2
        const P t1365 = c[11] * t1363;
        const P t1366 = P(c[10], -c[10]) * t1364;
        const P t1367 = t1365 + t1366;
        // complex block of 7, multiplier 4
        const P t1368 = t1362 + t1367;
        const V t1369 = part<0>(t1311);
        const P t1370 = c[1] * t1368;
        const V t1371 = part<0>(t1370);
        const V t1372 = t1369 + t1371;
        // real block of 7
        const P t1373 = c[4] * t1316;
        const P t1374 = c[5] * t1313;
        const P t1375 = shuffled<0, 3>(t1373, t1374);
        const P t1376 = P(c[3], -c[3]) * t1314;
        const P t1377 = t1375 + t1376;
        const P t1378 = shuffled<0, 3>(t1374, t1373);
        const P t1379 = flipped<0, 1>(t1378);
        const P t1380 = t1377 + t1379;
        const P t1381 = c[0] * t1289;
        const P t1382 = t1268 + t1381;
        const P t1383 = c[1] * t1291;
        const P t1384 = flipped<0, 1>(t1382);
        const P t1385 = t1383 + t1384;
        const P t1386 = P(c[2], -c[2]) * t1295;
        const P t1387 = t1385 + t1386;
        // skew block of 14
        const P t1388 = c[5] * t1380;
        const P t1389 = c[2] * t1387;
        const P t1390 = t1388 + t1389;
        // real block of 7
        const P t1391 = c[5] * t1339;
        const P t1392 = c[3] * t1337;
        const P t1393 = shuffled<0, 3>(t1391, t1392);
        const P t1394 = c[4] * t1336;
        const P t1395 = t1393 + t1394;
        const P t1396 = shuffled<0, 3>(t1392, t1391);
        const P t1397 = flipped<1, 0>(t1396);
        const P t1398 = t1395 + t1397;
        const P t1399 = shuffled<0, 3>(t1390, t1398);
        const P t1400 = shuffled<0, 3>(t1398, t1390);
        // complex block of 2
        const P t1401 = t1399 - t1400;
        // real block of 7
        const P t1402 = P(-c[0], c[0]) * t1299;
        const P t1403 = t1282 + t1402;
        const P t1404 = c[1] * t1302;
        const P t1405 = flipped<0, 1>(t1403);
        const P t1406 = t1404 + t1405;
        const P t1407 = c[2] * t1305;
        const P t1408 = t1406 - t1407;
        // skew block of 14
        const P t1409 = P(-c[5], c[5]) * t1387;
        const P t1410 = P(c[2], -c[2]) * t1380;
        const P t1411 = t1409 + t1410;
        // complex block of 2
        const P t1412 = t1408 + t1411;
        // spectrum block of 29, multiplier 2
        const P t1413 = c[7] * t1401;
        const P t1414 = c[6] * t1412;
        const P t1415 = t1413 + t1414;
        // complex block of 2
        const P t1416 = t1398 + t1390;
        const P t1417 = t1408 - t1411;
        // spectrum block of 29, multiplier 2
        const P t1418 = c[31] * t1416;
        const P t1419 = P(c[30], -c[30]) * t1417;
        const P t1420 = t1418 + t1419;
        const P t1421 = flipped<0, 1>(t1420);
        // complex block of 7, multiplier 4
        const P t1422 = t1415 + t1421;
        const V t1423 = part<0>(t1422);
        const V t1424 = c[2] * t1423;
        const V t1425 = t1372 + t1424;
        // real block of 7
        const P t1426 = c[3] * t1339;
        const P t1427 = c[5] * t1336;
        const P t1428 = shuffled<0, 3>(t1426, t1427);
        const P t1429 = c[4] * t1337;
        const P t1430 = t1428 - t1429;
        const P t1431 = shuffled<0, 3>(t1427, t1426);
        const P t1432 = t1430 - t1431;
        // real block of 7
        const P t1433 = c[5] * t1316;
        const P t1434 = P(-c[4], c[4]) * t1314;
        const P t1435 = c[3] * t1313;
        const P t1436 = shuffled<0, 3>(t1434, t1435);
        const P t1437 = t1433 + t1436;
        const P t1438 = shuffled<0, 3>(t1435, t1434);
        const P t1439 = t1437 - t1438;
        const P t1440 = c[1] * t1289;
        const P t1441 = P(c[2], -c[2]) * t1291;
        const P t1442 = t1440 + t1441;
        const P t1443 = c[0] * t1295;
        const P t1444 = t1442 - t1443;
        const P t1445 = t1444 - t1268;
        // skew block of 14
        const P t1446 = c[3] * t1439;
        const P t1447 = c[0] * t1445;
        const P t1448 = t1446 + t1447;
        // complex block of 2
        const P t1449 = t1432 + t1448;
        // real block of 7
        const P t1450 = c[1] * t1299;
        const P t1451 = c[2] * t1302;
        const P t1452 = t1450 - t1451;
        const P t1453 = c[0] * t1305;
        const P t1454 = t1452 - t1453;
        const P t1455 = t1454 + t1307;
        // skew block of 14
        const P t1456 = c[3] * t1445;
        const P t1457 = c[0] * t1439;
        const P t1458 = t1456 - t1457;
        // complex block of 2
        const P t1459 = t1455 + t1458;
        // spectrum block of 29, multiplier 2
        const P t1460 = c[14] * t1449;
        const P t1461 = c[15] * t1459;
        const P t1462 = t1460 + t1461;
        // complex block of 2
        const P t1463 = t1455 - t1458;
        const P t1464 = t1448 - t1432;
        // spectrum block of 29, multiplier 2
        const P t1465 = c[23] * t1463;
        const P t1466 = c[22] * t1464;
        const P t1467 = t1465 - t1466;
        // complex block of 7, multiplier 4
        const P t1468 = t1462 + t1467;
        const P t1469 = c[2] * t1368;
        const V t1470 = part<0>(t1469);
        const V t1471 = c[0] * t1423;
        const V t1472 = t1470 - t1471;
        const V t1473 = part<0>(t1468);
        const V t1474 = c[1] * t1473;
        const V t1475 = t1472 - t1474;
        const P t1476 = c[0] * t1368;
        const V t1477 = part<0>(t1476);
        const V t1478 = c[1] * t1423;
        const V t1479 = t1477 + t1478;
        const V t1480 = c[2] * t1473;
        const V t1481 = t1479 + t1480;
        const P t1482 = flipped<1, 0>(t1251);
        // real block of 2
        const P t1483 = t1195 + t1482;
        const P t1484 = flipped<0, 1>(t1153);
        // real block of 2
        const P t1485 = t1237 + t1484;
        const P t1486 = flipped<1, 0>(t1485);
        // real block of 7, multiplier 2
        const P t1487 = t1486 + t1483;
        const P t1488 = flipped<0, 1>(t1181);
        // real block of 2
        const P t1489 = t1167 + t1488;
        // real block of 2
        const P t1490 = t1111 - t1139;
        // real block of 7, multiplier 2
        const P t1491 = t1489 + t1490;
        const P t1492 = t1487 + t1491;
        const P t1493 = flipped<0, 1>(t1265);
        // real block of 2
        const P t1494 = t1223 + t1493;
        // real block of 2
        const P t1495 = t1209 + t1097;
        const P t1496 = flipped<1, 0>(t1495);
        // real block of 7, multiplier 2
        const P t1497 = t1494 + t1496;
        const P t1498 = t1492 + t1497;
        const P t1499 = flipped<0, 1>(t1125);
        // real block of 2
        const P t1500 = t1279 + t1499;
        // real block of 7, multiplier 2
        const P t1501 = t1498 + t1500;
        const P t1502 = c[2] * t1487;
        const P t1503 = t1500 - t1502;
        const P t1504 = c[0] * t1491;
        const P t1505 = t1503 - t1504;
        const P t1506 = c[1] * t1497;
        const P t1507 = t1505 + t1506;
        const P t1508 = flipped<0, 1>(t1483);
        const P t1509 = t1485 + t1508;
        const P t1510 = t1489 - t1490;
        const P t1511 = c[5] * t1509;
        const P t1512 = P(-c[3], c[3]) * t1510;
        const P t1513 = t1511 + t1512;
        const P t1514 = t1494 - t1496;
        const P t1515 = P(-c[4], c[4]) * t1514;
        const P t1516 = t1513 + t1515;
        // spectrum block of 29, multiplier 2
        const P t1517 = c[25] * t1516;
        const P t1518 = P(c[24], -c[24]) * t1507;
        const P t1519 = t1517 + t1518;
        const P t1520 = c[33] * t1501;
        const V t1521 = part<0>(t1520);
        // spectrum block of 7, multiplier 4
        const P t1522 = c[1] * t1519;
        const V t1523 = part<0>(t1522);
        const V t1524 = t1521 + t1523;
        // real block of 7, multiplier 2
        const P t1525 = c[0] * t1487;
        const P t1526 = t1500 - t1525;
        const P t1527 = c[1] * t1491;
        const P t1528 = t1526 + t1527;
        const P t1529 = c[2] * t1497;
        const P t1530 = t1528 - t1529;
        const P t1531 = P(-c[3], c[3]) * t1509;
        const P t1532 = c[4] * t1510;
        const P t1533 = t1531 + t1532;
        const P t1534 = c[5] * t1514;
        const P t1535 = t1533 - t1534;
        // spectrum block of 29, multiplier 2
        const P t1536 = c[16] * t1530;
        const P t1537 = c[17] * t1535;
        const P t1538 = t1536 - t1537;
        const V t1539 = part<0>(t1538);
        // spectrum block of 7, multiplier 4
        const V t1540 = c[2] * t1539;
        const V t1541 = t1524 + t1540;
        // real block of 7, multiplier 2
        const P t1542 = c[1] * t1487;
        const P t1543 = c[2] * t1491;
        const P t1544 = t1542 - t1543;
        const P t1545 = c[0] * t1497;
        const P t1546 = t1544 - t1545;
        const P t1547 = t1546 + t1500;
        const P t1548 = c[4] * t1509;
        const P t1549 = P(c[5], -c[5]) * t1510;
        const P t1550 = t1548 + t1549;
        const P t1551 = P(c[3], -c[3]) * t1514;
        const P t1552 = t1550 + t1551;
        // spectrum block of 29, multiplier 2
        const P t1553 = c[8] * t1547;
        const P t1554 = P(-c[9], c[9]) * t1552;
        const P t1555 = t1553 + t1554;
        // spectrum block of 7, multiplier 4
        const P t1556 = c[2] * t1519;
        const V t1557 = part<0>(t1556);
        const V t1558 = c[0] * t1539;
        const V t1559 = t1557 - t1558;
        const V t1560 = part<0>(t1555);
        const V t1561 = c[1] * t1560;
        const V t1562 = t1559 + t1561;
        const P t1563 = c[0] * t1519;
        const V t1564 = part<0>(t1563);
        const V t1565 = c[1] * t1539;
        const V t1566 = t1564 + t1565;
        const V t1567 = c[2] * t1560;
        const V t1568 = t1566 - t1567;
        // real block of 2
        const P t1569 = t1103 + t1257;
        const P t1570 = t1103 - t1257;
        // real block of 2
        const P t1571 = t1145 - t1229;
        const P t1572 = t1145 + t1229;
        // real block of 2
        const P t1573 = t1271 + t1243;
        const P t1574 = t1271 - t1243;
        // real block of 2
        const P t1575 = t1173 + t1285;
        const P t1576 = t1173 - t1285;
        // real block of 2
        const P t1577 = t1159 + t1117;
        const P t1578 = t1159 - t1117;
        // real block of 2
        const P t1579 = t1215 + t1201;
        const P t1580 = t1215 - t1201;
        // real block of 2
        const P t1581 = t1131 - t1187;
        const P t1582 = t1187 + t1131;
        // real block of 7, multiplier 2
        const P t1583 = t1571 + t1581;
        const P t1584 = t1571 - t1581;
        const P t1585 = t1579 + t1573;
        const P t1586 = t1579 - t1573;
        const P t1587 = t1577 + t1575;
        const P t1588 = t1577 - t1575;
        const P t1589 = t1583 + t1585;
        const P t1590 = t1589 + t1587;
        const P t1591 = t1590 + t1569;
        const P t1592 = c[2] * t1583;
        const P t1593 = t1569 - t1592;
        const P t1594 = c[0] * t1585;
        const P t1595 = t1593 - t1594;
        const P t1596 = c[1] * t1587;
        const P t1597 = t1595 + t1596;
        const P t1598 = c[5] * t1584;
        const P t1599 = c[3] * t1586;
        const P t1600 = t1598 + t1599;
        const P t1601 = c[4] * t1588;
        const P t1602 = t1600 + t1601;
        const P t1603 = c[0] * t1583;
        const P t1604 = t1569 - t1603;
        const P t1605 = c[1] * t1585;
        const P t1606 = t1604 + t1605;
        const P t1607 = c[2] * t1587;
        const P t1608 = t1606 - t1607;
        const P t1609 = c[3] * t1584;
        const P t1610 = c[4] * t1586;
        const P t1611 = t1609 + t1610;
        const P t1612 = c[5] * t1588;
        const P t1613 = t1611 - t1612;
        const P t1614 = c[1] * t1583;
        const P t1615 = c[2] * t1585;
        const P t1616 = t1614 - t1615;
        const P t1617 = c[0] * t1587;
        const P t1618 = t1616 - t1617;
        const P t1619 = t1618 + t1569;
        const P t1620 = c[4] * t1584;
        const P t1621 = c[5] * t1586;
        const P t1622 = t1620 - t1621;
        const P t1623 = c[3] * t1588;
        const P t1624 = t1622 - t1623;
        // real block of 7, multiplier 2
        const P t1625 = t1572 - t1582;
        const P t1626 = t1572 + t1582;
        const P t1627 = t1580 + t1574;
        const P t1628 = t1580 - t1574;
        const P t1629 = t1578 + t1576;
        const P t1630 = t1578 - t1576;
        const P t1631 = t1625 + t1627;
        const P t1632 = t1631 + t1629;
        const P t1633 = t1632 + t1570;
        const P t1634 = c[2] * t1625;
        const P t1635 = t1570 - t1634;
        const P t1636 = c[0] * t1627;
        const P t1637 = t1635 - t1636;
        const P t1638 = c[1] * t1629;
        const P t1639 = t1637 + t1638;
        const P t1640 = c[5] * t1626;
        const P t1641 = c[3] * t1628;
        const P t1642 = t1640 + t1641;
        const P t1643 = c[4] * t1630;
        const P t1644 = t1642 + t1643;
        const P t1645 = c[0] * t1625;
        const P t1646 = t1570 - t1645;
        const P t1647 = c[1] * t1627;
        const P t1648 = t1646 + t1647;
        const P t1649 = c[2] * t1629;
        const P t1650 = t1648 - t1649;
        const P t1651 = c[3] * t1626;
        const P t1652 = c[4] * t1628;
        const P t1653 = t1651 + t1652;
        const P t1654 = c[5] * t1630;
        const P t1655 = t1653 - t1654;
        const P t1656 = c[1] * t1625;
        const P t1657 = c[2] * t1627;
        const P t1658 = t1656 - t1657;
        const P t1659 = c[0] * t1629;
        const P t1660 = t1658 - t1659;
        const P t1661 = t1660 + t1570;
        const P t1662 = c[4] * t1626;
        const P t1663 = c[5] * t1628;
        const P t1664 = t1662 - t1663;
        const P t1665 = c[3] * t1630;
        const P t1666 = t1664 - t1665;
        // real block of 7
        const P t1667 = t1190 - t1148;
        const P t1668 = t1148 + t1190;
        const P t1669 = t1218 - t1274;
        const P t1670 = t1218 + t1274;
        const P t1671 = t1162 + t1176;
        const P t1672 = t1176 - t1162;
        const P t1673 = t1667 + t1669;
        const P t1674 = t1673 - t1671;
        const P t1675 = t1674 + t1106;
        const P t1676 = c[1] * t1667;
        const P t1677 = c[2] * t1669;
        const P t1678 = t1676 - t1677;
        const P t1679 = c[0] * t1671;
        const P t1680 = t1678 + t1679;
        const P t1681 = t1680 + t1106;
        const P t1682 = c[4] * t1668;
        const P t1683 = c[5] * t1670;
        const P t1684 = t1682 + t1683;
        const P t1685 = c[3] * t1672;
        const P t1686 = t1684 + t1685;
        const P t1687 = c[2] * t1667;
        const P t1688 = t1106 - t1687;
        const P t1689 = c[0] * t1669;
        const P t1690 = t1688 - t1689;
        const P t1691 = c[1] * t1671;
        const P t1692 = t1690 - t1691;
        const P t1693 = c[5] * t1668;
        const P t1694 = c[3] * t1670;
        const P t1695 = t1693 - t1694;
        const P t1696 = c[4] * t1672;
        const P t1697 = t1695 - t1696;
        const P t1698 = c[0] * t1667;
        const P t1699 = t1106 - t1698;
        const P t1700 = c[1] * t1669;
        const P t1701 = t1699 + t1700;
        const P t1702 = c[2] * t1671;
        const P t1703 = t1701 + t1702;
        const P t1704 = c[3] * t1668;
        const P t1705 = c[5] * t1672;
        const P t1706 = t1704 + t1705;
        const P t1707 = c[4] * t1670;
        const P t1708 = t1706 - t1707;
        // real block of 7
        const P t1709 = t1288 - t1204;
        const P t1710 = t1204 + t1288;
        const P t1711 = t1246 + t1134;
        const P t1712 = t1246 - t1134;
        const P t1713 = t1260 - t1232;
        const P t1714 = t1232 + t1260;
        const P t1715 = t1709 + t1711;
        const P t1716 = t1715 + t1713;
        const P t1717 = t1716 + t1120;
        const P t1718 = c[1] * t1709;
        const P t1719 = c[2] * t1711;
        const P t1720 = t1718 - t1719;
        const P t1721 = c[0] * t1713;
        const P t1722 = t1720 - t1721;
        const P t1723 = t1722 + t1120;
        const P t1724 = c[4] * t1710;
        const P t1725 = c[5] * t1712;
        const P t1726 = t1724 + t1725;
        const P t1727 = c[3] * t1714;
        const P t1728 = t1726 - t1727;
        const P t1729 = c[2] * t1709;
        const P t1730 = t1120 - t1729;
        const P t1731 = c[0] * t1711;
        const P t1732 = t1730 - t1731;
        const P t1733 = c[1] * t1713;
        const P t1734 = t1732 + t1733;
        const P t1735 = c[5] * t1710;
        const P t1736 = c[4] * t1714;
        const P t1737 = t1735 + t1736;
        const P t1738 = c[3] * t1712;
        const P t1739 = t1737 - t1738;
        const P t1740 = c[0] * t1709;
        const P t1741 = t1120 - t1740;
        const P t1742 = c[1] * t1711;
        const P t1743 = t1741 + t1742;
        const P t1744 = c[2] * t1713;
        const P t1745 = t1743 - t1744;
        const P t1746 = c[3] * t1710;
        const P t1747 = c[4] * t1712;
        const P t1748 = t1746 - t1747;
        const P t1749 = c[5] * t1714;
        const P t1750 = t1748 - t1749;
        // skew block of 14
        const P t1751 = c[5] * t1745;
        const P t1752 = c[2] * t1750;
        const P t1753 = t1751 - t1752;
        const P t1754 = c[5] * t1750;
        const P t1755 = c[2] * t1745;
        const P t1756 = t1754 + t1755;
        // complex block of 2
        const P t1757 = t1703 + t1753;
        const P t1758 = t1708 + t1756;
        const P t1759 = t1703 - t1753;
        const P t1760 = t1756 - t1708;
        // skew block of 14
        const P t1761 = c[4] * t1734;
        const P t1762 = c[1] * t1739;
        const P t1763 = t1761 - t1762;
        const P t1764 = c[4] * t1739;
        const P t1765 = c[1] * t1734;
        const P t1766 = t1764 + t1765;
        // complex block of 2
        const P t1767 = t1692 + t1763;
        const P t1768 = t1697 + t1766;
        const P t1769 = t1692 - t1763;
        const P t1770 = t1766 - t1697;
        // skew block of 14
        const P t1771 = c[3] * t1723;
        const P t1772 = c[0] * t1728;
        const P t1773 = t1771 - t1772;
        const P t1774 = c[3] * t1728;
        const P t1775 = c[0] * t1723;
        const P t1776 = t1774 + t1775;
        // complex block of 2
        const P t1777 = t1681 + t1773;
        const P t1778 = t1686 + t1776;
        const P t1779 = t1681 - t1773;
        const P t1780 = t1776 - t1686;
        // spectrum block of 29, multiplier 2
        const P t1781 = c[32] * t1591;
        const P t1782 = t1092 - t1781;
        const P t1783 = c[7] * t1757;
        const P t1784 = c[6] * t1758;
        const P t1785 = t1783 + t1784;
        const P t1786 = c[7] * t1758;
        const P t1787 = c[6] * t1757;
        const P t1788 = t1786 - t1787;
        const P t1789 = c[8] * t1661;
        const P t1790 = c[9] * t1666;
        const P t1791 = t1789 + t1790;
        const P t1792 = c[9] * t1661;
        const P t1793 = c[8] * t1666;
        const P t1794 = t1792 - t1793;
        const P t1795 = c[11] * t1767;
        const P t1796 = c[10] * t1768;
        const P t1797 = t1795 - t1796;
        const P t1798 = c[11] * t1768;
        const P t1799 = c[10] * t1767;
        const P t1800 = t1798 + t1799;
        const P t1801 = c[12] * t1597;
        const P t1802 = c[13] * t1602;
        const P t1803 = t1801 - t1802;
        const P t1804 = c[12] * t1602;
        const P t1805 = c[13] * t1597;
        const P t1806 = t1804 + t1805;
        const P t1807 = c[15] * t1778;
        const P t1808 = c[14] * t1777;
        const P t1809 = t1807 - t1808;
        const P t1810 = c[14] * t1778;
        const P t1811 = c[15] * t1777;
        const P t1812 = t1810 + t1811;
        const P t1813 = c[16] * t1650;
        const P t1814 = c[17] * t1655;
        const P t1815 = t1813 - t1814;
        const P t1816 = c[16] * t1655;
        const P t1817 = c[17] * t1650;
        const P t1818 = t1816 + t1817;
        const P t1819 = c[19] * t1675;
        const P t1820 = c[18] * t1717;
        const P t1821 = t1819 - t1820;
        const P t1822 = c[19] * t1717;
        const P t1823 = c[18] * t1675;
        const P t1824 = t1822 + t1823;
        const P t1825 = c[20] * t1608;
        const P t1826 = c[21] * t1613;
        const P t1827 = t1825 - t1826;
        const P t1828 = c[20] * t1613;
        const P t1829 = c[21] * t1608;
        const P t1830 = t1828 + t1829;
        const P t1831 = c[22] * t1779;
        const P t1832 = c[23] * t1780;
        const P t1833 = t1831 + t1832;
        const P t1834 = c[23] * t1779;
        const P t1835 = c[22] * t1780;
        const P t1836 = t1834 - t1835;
        const P t1837 = c[25] * t1644;
        const P t1838 = c[24] * t1639;
        const P t1839 = t1837 - t1838;
        const P t1840 = c[24] * t1644;
        const P t1841 = c[25] * t1639;
        const P t1842 = t1840 + t1841;
        const P t1843 = c[27] * t1769;
        const P t1844 = c[26] * t1770;
        const P t1845 = t1843 - t1844;
        const P t1846 = c[27] * t1770;
        const P t1847 = c[26] * t1769;
        const P t1848 = t1846 + t1847;
        const P t1849 = c[28] * t1619;
        const P t1850 = c[29] * t1624;
        const P t1851 = t1849 + t1850;
        const P t1852 = c[28] * t1624;
        const P t1853 = c[29] * t1619;
        const P t1854 = t1852 - t1853;
        const P t1855 = c[31] * t1759;
        const P t1856 = c[30] * t1760;
        const P t1857 = t1855 + t1856;
        const P t1858 = c[31] * t1760;
        const P t1859 = c[30] * t1759;
        const P t1860 = t1858 - t1859;
        // spectrum block of 7, multiplier 4
        const P t1861 = t1803 + t1827;
        const P t1862 = t1861 + t1851;
        const P t1863 = t1862 + t1782;
        const P t1864 = c[1] * t1803;
        const P t1865 = c[2] * t1827;
        const P t1866 = t1864 - t1865;
        const P t1867 = c[0] * t1851;
        const P t1868 = t1866 - t1867;
        const P t1869 = t1868 + t1782;
        const P t1870 = c[5] * t1830;
        const P t1871 = c[4] * t1806;
        const P t1872 = t1870 - t1871;
        const P t1873 = c[3] * t1854;
        const P t1874 = t1872 + t1873;
        const P t1875 = t1869 - t1874;
        const P t1876 = t1869 + t1874;
        const P t1877 = c[2] * t1803;
        const P t1878 = t1782 - t1877;
        const P t1879 = c[0] * t1827;
        const P t1880 = t1878 - t1879;
        const P t1881 = c[1] * t1851;
        const P t1882 = t1880 + t1881;
        const P t1883 = c[5] * t1806;
        const P t1884 = c[3] * t1830;
        const P t1885 = t1883 + t1884;
        const P t1886 = c[4] * t1854;
        const P t1887 = t1885 + t1886;
        const P t1888 = t1882 + t1887;
        const P t1889 = t1882 - t1887;
        const P t1890 = c[0] * t1803;
        const P t1891 = t1782 - t1890;
        const P t1892 = c[1] * t1827;
        const P t1893 = t1891 + t1892;
        const P t1894 = c[2] * t1851;
        const P t1895 = t1893 - t1894;
        const P t1896 = c[3] * t1806;
        const P t1897 = c[4] * t1830;
        const P t1898 = t1896 + t1897;
        const P t1899 = c[5] * t1854;
        const P t1900 = t1899 - t1898;
        const P t1901 = t1895 - t1900;
        const P t1902 = t1895 + t1900;
        // complex block of 7, multiplier 4
        const P t1903 = t1848 + t1800;
        const P t1904 = t1845 + t1797;
        const P t1905 = t1800 - t1848;
        const P t1906 = t1845 - t1797;
        const P t1907 = t1788 + t1860;
        const P t1908 = t1785 + t1857;
        const P t1909 = t1860 - t1788;
        const P t1910 = t1857 - t1785;
        const P t1911 = t1812 + t1836;
        const P t1912 = t1809 + t1833;
        const P t1913 = t1836 - t1812;
        const P t1914 = t1809 - t1833;
        const P t1915 = t1903 + t1907;
        const P t1916 = t1915 + t1911;
        const P t1917 = t1904 - t1908;
        const P t1918 = t1917 + t1912;
        const P t1919 = t1916 + t1824;
        const P t1920 = t1918 + t1821;
        const P t1921 = c[1] * t1903;
        const P t1922 = t1824 + t1921;
        const P t1923 = c[2] * t1907;
        const P t1924 = t1923 - t1922;
        const P t1925 = c[0] * t1911;
        const P t1926 = t1924 + t1925;
        const P t1927 = c[1] * t1904;
        const P t1928 = c[2] * t1908;
        const P t1929 = t1927 + t1928;
        const P t1930 = c[0] * t1912;
        const P t1931 = t1929 - t1930;
        const P t1932 = t1931 + t1821;
        const P t1933 = c[4] * t1905;
        const P t1934 = c[5] * t1909;
        const P t1935 = t1933 - t1934;
        const P t1936 = c[3] * t1913;
        const P t1937 = t1935 - t1936;
        const P t1938 = c[4] * t1906;
        const P t1939 = c[5] * t1910;
        const P t1940 = t1938 - t1939;
        const P t1941 = c[3] * t1914;
        const P t1942 = t1940 - t1941;
        const P t1943 = t1926 + t1942;
        const P t1944 = t1932 - t1937;
        const P t1945 = t1926 - t1942;
        const P t1946 = t1932 + t1937;
        const P t1947 = c[2] * t1903;
        const P t1948 = c[0] * t1907;
        const P t1949 = t1947 + t1948;
        const P t1950 = c[1] * t1911;
        const P t1951 = t1949 - t1950;
        const P t1952 = t1951 - t1824;
        const P t1953 = c[2] * t1904;
        const P t1954 = t1821 - t1953;
        const P t1955 = c[0] * t1908;
        const P t1956 = t1954 + t1955;
        const P t1957 = c[1] * t1912;
        const P t1958 = t1956 + t1957;
        const P t1959 = c[5] * t1905;
        const P t1960 = c[3] * t1909;
        const P t1961 = t1959 + t1960;
        const P t1962 = c[4] * t1913;
        const P t1963 = t1961 + t1962;
        const P t1964 = c[5] * t1906;
        const P t1965 = c[3] * t1910;
        const P t1966 = t1964 + t1965;
        const P t1967 = c[4] * t1914;
        const P t1968 = t1966 + t1967;
        const P t1969 = t1952 + t1968;
        const P t1970 = t1958 - t1963;
        const P t1971 = t1952 - t1968;
        const P t1972 = t1958 + t1963;
        const P t1973 = c[0] * t1903;
        const P t1974 = c[1] * t1907;
        const P t1975 = t1973 - t1974;
        const P t1976 = c[2] * t1911;
        const P t1977 = t1975 + t1976;
        const P t1978 = t1977 - t1824;
        const P t1979 = c[0] * t1904;
        const P t1980 = t1821 - t1979;
        const P t1981 = c[1] * t1908;
        const P t1982 = t1980 - t1981;
        const P t1983 = c[2] * t1912;
        const P t1984 = t1982 - t1983;
        const P t1985 = c[3] * t1905;
        const P t1986 = c[4] * t1909;
        const P t1987 = t1985 + t1986;
        const P t1988 = c[5] * t1913;
        const P t1989 = t1987 - t1988;
        const P t1990 = c[3] * t1906;
        const P t1991 = c[4] * t1910;
        const P t1992 = t1990 + t1991;
        const P t1993 = c[5] * t1914;
        const P t1994 = t1992 - t1993;
        const P t1995 = t1978 + t1994;
        const P t1996 = t1984 - t1989;
        const P t1997 = t1978 - t1994;
        const P t1998 = t1984 + t1989;
        // spectrum block of 7, multiplier 4
        const P t1999 = t1839 + t1815;
        const P t2000 = t1999 + t1791;
        // spectrum block of 29, multiplier 2
        const P t2001 = c[33] * t1633;
        // spectrum block of 7, multiplier 4
        const P t2002 = t2000 - t2001;
        const P t2003 = c[1] * t1839;
        const P t2004 = c[2] * t1815;
        const P t2005 = t2003 - t2004;
        const P t2006 = c[0] * t1791;
        const P t2007 = t2005 - t2006;
        const P t2008 = t2007 - t2001;
        const P t2009 = c[4] * t1842;
        const P t2010 = c[5] * t1818;
        const P t2011 = t2009 + t2010;
        const P t2012 = c[3] * t1794;
        const P t2013 = t2011 - t2012;
        const P t2014 = t2008 - t2013;
        const P t2015 = t2008 + t2013;
        const P t2016 = c[2] * t1839;
        const P t2017 = t2001 + t2016;
        const P t2018 = c[0] * t1815;
        const P t2019 = t2017 + t2018;
        const P t2020 = c[1] * t1791;
        const P t2021 = t2020 - t2019;
        const P t2022 = c[5] * t1842;
        const P t2023 = c[3] * t1818;
        const P t2024 = t2022 - t2023;
        const P t2025 = c[4] * t1794;
        const P t2026 = t2024 + t2025;
        const P t2027 = t2021 - t2026;
        const P t2028 = t2021 + t2026;
        const P t2029 = c[0] * t1839;
        const P t2030 = t2001 + t2029;
        const P t2031 = c[1] * t1815;
        const P t2032 = t2031 - t2030;
        const P t2033 = c[2] * t1791;
        const P t2034 = t2032 - t2033;
        const P t2035 = c[3] * t1842;
        const P t2036 = c[4] * t1818;
        const P t2037 = t2035 - t2036;
        const P t2038 = c[5] * t1794;
        const P t2039 = t2037 - t2038;
        const P t2040 = t2034 - t2039;
        const P t2041 = t2034 + t2039;
        // spectrum block of 2
        const P t2042 = t1863 + t2002;
        const P t2043 = t1863 - t2002;
        // spectrum block of 2
        const P t2044 = t2042 + t1920;
        const P t2045 = t2042 - t1920;
        // spectrum block of 2
        const P t2046 = t2043 - t1919;
        const P t2047 = t2043 + t1919;
        // spectrum block of 2
        const P t2048 = t1902 + t2041;
        const P t2049 = t1902 - t2041;
        // spectrum block of 2
        const P t2050 = t2048 + t1998;
        const P t2051 = t2048 - t1998;
        // spectrum block of 2
        const P t2052 = t2049 + t1997;
        const P t2053 = t2049 - t1997;
        // spectrum block of 2
        const P t2054 = t1875 + t2014;
        const P t2055 = t1875 - t2014;
        // spectrum block of 2
        const P t2056 = t2054 + t1944;
        const P t2057 = t2054 - t1944;
        // spectrum block of 2
        const P t2058 = t2055 + t1943;
        const P t2059 = t2055 - t1943;
        // spectrum block of 2
        const P t2060 = t1889 + t2028;
        const P t2061 = t1889 - t2028;
        // spectrum block of 2
        const P t2062 = t2060 + t1972;
        const P t2063 = t2060 - t1972;
        // spectrum block of 2
        const P t2064 = t2061 + t1971;
        const P t2065 = t2061 - t1971;
        // spectrum block of 2
        const P t2066 = t1888 + t2027;
        const P t2067 = t1888 - t2027;
        // spectrum block of 2
        const P t2068 = t2066 + t1970;
        const P t2069 = t2066 - t1970;
        // spectrum block of 2
        const P t2070 = t2067 + t1969;
        const P t2071 = t2067 - t1969;
        // spectrum block of 2
        const P t2072 = t1876 + t2015;
        const P t2073 = t1876 - t2015;
        // spectrum block of 2
        const P t2074 = t2072 + t1946;
        const P t2075 = t2072 - t1946;
        // spectrum block of 2
        const P t2076 = t2073 + t1945;
        const P t2077 = t2073 - t1945;
        // spectrum block of 2
        const P t2078 = t1901 + t2040;
        const P t2079 = t1901 - t2040;
        // spectrum block of 2
        const P t2080 = t2078 + t1996;
        const P t2081 = t2078 - t1996;
        // spectrum block of 2
        const P t2082 = t2079 + t1995;
        const P t2083 = t2079 - t1995;
        // spectrum block of 29, multiplier 2
        const P t2084 = t1092 + t1591;
        // real block of 2
        const P t2085 = t1279 - t1499;
        const P t2086 = flipped<1, 0>(t1237);
        // real block of 2
        const P t2087 = t2086 + t1153;
        // real block of 2
        const P t2088 = t1111 + t1139;
        const P t2089 = shuffled<0, 3>(t1097, t1209);
        const P t2090 = shuffled<0, 3>(t1209, t1097);
        // real block of 2
        const P t2091 = t2089 - t2090;
        // real block of 2
        const P t2092 = t1223 - t1493;
        // real block of 2
        const P t2093 = t1167 - t1488;
        // real block of 2
        const P t2094 = t1195 - t1482;
        // real block of 7, multiplier 2
        const P t2095 = t2087 + t2094;
        const P t2096 = t2087 - t2094;
        const P t2097 = t2093 + t2088;
        const P t2098 = t2093 - t2088;
        const P t2099 = t2092 + t2091;
        const P t2100 = t2092 - t2091;
        const P t2101 = t2095 + t2097;
        const P t2102 = t2101 + t2099;
        const P t2103 = t2102 + t2085;
        const P t2104 = c[2] * t2095;
        const P t2105 = t2085 - t2104;
        const P t2106 = c[0] * t2097;
        const P t2107 = t2105 - t2106;
        const P t2108 = c[1] * t2099;
        const P t2109 = t2107 + t2108;
        const P t2110 = c[5] * t2096;
        const P t2111 = c[3] * t2098;
        const P t2112 = t2110 + t2111;
        const P t2113 = c[4] * t2100;
        const P t2114 = t2112 + t2113;
        const P t2115 = c[0] * t2095;
        const P t2116 = t2085 - t2115;
        const P t2117 = c[1] * t2097;
        const P t2118 = t2116 + t2117;
        const P t2119 = c[2] * t2099;
        const P t2120 = t2118 - t2119;
        const P t2121 = c[3] * t2096;
        const P t2122 = c[4] * t2098;
        const P t2123 = t2121 + t2122;
        const P t2124 = c[5] * t2100;
        const P t2125 = t2123 - t2124;
        const P t2126 = c[1] * t2095;
        const P t2127 = c[2] * t2097;
        const P t2128 = t2126 - t2127;
        const P t2129 = c[0] * t2099;
        const P t2130 = t2128 - t2129;
        const P t2131 = t2130 + t2085;
        const P t2132 = c[4] * t2096;
        const P t2133 = c[5] * t2098;
        const P t2134 = t2132 - t2133;
        const P t2135 = c[3] * t2100;
        const P t2136 = t2134 - t2135;
        const P t2137 = shuffled<1, 0>(t796);
        // complex block of 59
        const P t2138 = c[91] * t2137;
        // spectrum block of 29, multiplier 2
        const P t2139 = P(-c[32], c[32]) * t2103;
        const P t2140 = t2138 + t2139;
        const P t2141 = c[6] * t1401;
        const P t2142 = c[7] * t1412;
        const P t2143 = t2141 - t2142;
        const P t2144 = c[9] * t1547;
        const P t2145 = P(c[8], -c[8]) * t1552;
        const P t2146 = t2144 + t2145;
        const P t2147 = c[11] * t1364;
        const P t2148 = P(-c[10], c[10]) * t1363;
        const P t2149 = t2147 + t2148;
        const P t2150 = c[12] * t2109;
        const P t2151 = c[13] * t2114;
        const P t2152 = t2150 - t2151;
        const P t2153 = c[12] * t2114;
        const P t2154 = c[13] * t2109;
        const P t2155 = t2153 + t2154;
        const P t2156 = c[15] * t1449;
        const P t2157 = c[14] * t1459;
        const P t2158 = t2156 - t2157;
        const P t2159 = c[16] * t1535;
        const P t2160 = c[17] * t1530;
        const P t2161 = t2159 + t2160;
        const P t2162 = c[19] * t1308;
        const P t2163 = c[18] * t1297;
        const P t2164 = t2162 - t2163;
        const P t2165 = c[20] * t2120;
        const P t2166 = c[21] * t2125;
        const P t2167 = t2165 - t2166;
        const P t2168 = c[20] * t2125;
        const P t2169 = c[21] * t2120;
        const P t2170 = t2168 + t2169;
        const P t2171 = c[22] * t1463;
        const P t2172 = c[23] * t1464;
        const P t2173 = t2171 + t2172;
        const P t2174 = c[24] * t1516;
        const P t2175 = P(-c[25], c[25]) * t1507;
        const P t2176 = t2174 + t2175;
        const P t2177 = c[27] * t1359;
        const P t2178 = P(-c[26], c[26]) * t1348;
        const P t2179 = t2177 + t2178;
        const P t2180 = c[28] * t2131;
        const P t2181 = c[29] * t2136;
        const P t2182 = t2180 + t2181;
        const P t2183 = c[28] * t2136;
        const P t2184 = c[29] * t2131;
        const P t2185 = t2183 - t2184;
        const P t2186 = P(-c[31], c[31]) * t1417;
        const P t2187 = c[30] * t1416;
        const P t2188 = t2186 + t2187;
        // spectrum block of 7, multiplier 4
        const P t2189 = t2152 + t2167;
        const P t2190 = t2189 + t2182;
        const P t2191 = flipped<0, 1>(t2140);
        const P t2192 = t2190 + t2191;
        const P t2193 = c[1] * t2152;
        const P t2194 = c[2] * t2167;
        const P t2195 = t2193 - t2194;
        const P t2196 = c[0] * t2182;
        const P t2197 = t2195 - t2196;
        const P t2198 = t2197 + t2191;
        const P t2199 = c[5] * t2170;
        const P t2200 = c[4] * t2155;
        const P t2201 = t2199 - t2200;
        const P t2202 = c[3] * t2185;
        const P t2203 = t2201 + t2202;
        const P t2204 = t2198 - t2203;
        const P t2205 = t2198 + t2203;
        const P t2206 = P(-c[2], c[2]) * t2152;
        const P t2207 = t2140 + t2206;
        const P t2208 = P(-c[0], c[0]) * t2167;
        const P t2209 = t2207 + t2208;
        const P t2210 = c[1] * t2182;
        const P t2211 = flipped<0, 1>(t2209);
        const P t2212 = t2210 + t2211;
        const P t2213 = c[5] * t2155;
        const P t2214 = c[3] * t2170;
        const P t2215 = t2213 + t2214;
        const P t2216 = c[4] * t2185;
        const P t2217 = t2215 + t2216;
        const P t2218 = t2212 + t2217;
        const P t2219 = t2212 - t2217;
        const P t2220 = P(-c[0], c[0]) * t2152;
        const P t2221 = t2140 + t2220;
        const P t2222 = c[1] * t2167;
        const P t2223 = flipped<0, 1>(t2221);
        const P t2224 = t2222 + t2223;
        const P t2225 = c[2] * t2182;
        const P t2226 = t2224 - t2225;
        const P t2227 = c[3] * t2155;
        const P t2228 = c[4] * t2170;
        const P t2229 = t2227 + t2228;
        const P t2230 = c[5] * t2185;
        const P t2231 = t2230 - t2229;
        const P t2232 = t2226 - t2231;
        const P t2233 = t2226 + t2231;
        // complex block of 7, multiplier 4
        const P t2234 = t2179 + t2149;
        const P t2235 = shuffled<0, 3>(t1367, t1362);
        const P t2236 = shuffled<0, 3>(t1362, t1367);
        const P t2237 = t2235 - t2236;
        const P t2238 = t2179 - t2149;
        const P t2239 = flipped<0, 1>(t2188);
        const P t2240 = t2143 + t2239;
        const P t2241 = t1415 - t1421;
        const P t2242 = t2143 - t2239;
        const P t2243 = t2158 + t2173;
        const P t2244 = t1467 - t1462;
        const P t2245 = t2158 - t2173;
        const P t2246 = flipped<1, 0>(t1368);
        const P t2247 = t2246 + t1422;
        const P t2248 = t2247 - t1468;
        const P t2249 = t2234 + t2240;
        const P t2250 = t2249 + t2243;
        const P t2251 = t2248 - t1311;
        const P t2252 = t2250 + t2164;
        const V t2253 = part<1>(t1370);
        const V t2254 = part<1>(t1422);
        // complex block of 7, multiplier 4
        const V t2255 = c[2] * t2254;
        const V t2256 = t2253 - t2255;
        const V t2257 = part<1>(t1468);
        const V t2258 = c[0] * t2257;
        const V t2259 = t2256 + t2258;
        // complex block of 7, multiplier 4
        const V t2260 = c[0] * t1473;
        const P t2261 = joined(t2260, t2259);
        const V t2262 = part<1>(t1311);
        const P t2263 = joined(t1425, t2262);
        const P t2264 = t2261 - t2263;
        const P t2265 = c[1] * t2234;
        const P t2266 = c[2] * t2240;
        const P t2267 = t2265 - t2266;
        const P t2268 = c[0] * t2243;
        const P t2269 = t2267 - t2268;
        const P t2270 = t2269 + t2164;
        const P t2271 = c[4] * t2237;
        const P t2272 = c[5] * t2241;
        const P t2273 = t2271 - t2272;
        const P t2274 = c[3] * t2244;
        const P t2275 = t2273 - t2274;
        const P t2276 = c[4] * t2238;
        const P t2277 = c[5] * t2242;
        const P t2278 = t2276 - t2277;
        const P t2279 = c[3] * t2245;
        const P t2280 = t2278 - t2279;
        const P t2281 = t2264 + t2280;
        const P t2282 = t2270 - t2275;
        const P t2283 = t2264 - t2280;
        const P t2284 = t2270 + t2275;
        const V t2285 = part<1>(t1469);
        // complex block of 7, multiplier 4
        const V t2286 = t2262 + t2285;
        const V t2287 = c[0] * t2254;
        const V t2288 = t2286 + t2287;
        const P t2289 = joined(t1475, t2288);
        const V t2290 = -c[1] * t2257;
        const P t2291 = joined(t1369, t2290);
        // complex block of 7, multiplier 4
        const P t2292 = t2289 - t2291;
        const P t2293 = c[2] * t2234;
        const P t2294 = t2164 - t2293;
        const P t2295 = c[0] * t2240;
        const P t2296 = t2294 - t2295;
        const P t2297 = c[1] * t2243;
        const P t2298 = t2296 + t2297;
        const P t2299 = c[5] * t2237;
        const P t2300 = c[3] * t2241;
        const P t2301 = t2299 + t2300;
        const P t2302 = c[4] * t2244;
        const P t2303 = t2301 + t2302;
        const P t2304 = c[5] * t2238;
        const P t2305 = c[3] * t2242;
        const P t2306 = t2304 + t2305;
        const P t2307 = c[4] * t2245;
        const P t2308 = t2306 + t2307;
        const P t2309 = flipped<0, 1>(t2292);
        const P t2310 = t2308 + t2309;
        const P t2311 = t2298 - t2303;
        const P t2312 = flipped<1, 0>(t2308);
        const P t2313 = t2292 + t2312;
        const P t2314 = t2298 + t2303;
        const V t2315 = part<1>(t1476);
        // complex block of 7, multiplier 4
        const V t2316 = t2262 + t2315;
        const V t2317 = c[1] * t2254;
        const V t2318 = t2317 - t2316;
        const P t2319 = joined(t1481, t2318);
        const V t2320 = -c[2] * t2257;
        const P t2321 = joined(t1369, t2320);
        // complex block of 7, multiplier 4
        const P t2322 = t2319 - t2321;
        const P t2323 = c[0] * t2234;
        const P t2324 = t2164 - t2323;
        const P t2325 = c[1] * t2240;
        const P t2326 = t2324 + t2325;
        const P t2327 = c[2] * t2243;
        const P t2328 = t2326 - t2327;
        const P t2329 = c[3] * t2237;
        const P t2330 = c[4] * t2241;
        const P t2331 = t2329 + t2330;
        const P t2332 = c[5] * t2244;
        const P t2333 = t2331 - t2332;
        const P t2334 = c[3] * t2238;
        const P t2335 = c[4] * t2242;
        const P t2336 = t2334 + t2335;
        const P t2337 = c[5] * t2245;
        const P t2338 = t2336 - t2337;
        const P t2339 = t2322 + t2338;
        const P t2340 = t2328 - t2333;
        const P t2341 = t2322 - t2338;
        const P t2342 = t2328 + t2333;
        const P t2343 = flipped<1, 0>(t1519);
        // spectrum block of 7, multiplier 4
        const P t2344 = t2343 + t1538;
        const P t2345 = t2344 + t1555;
        const P t2346 = t2345 - t1520;
        const V t2347 = part<1>(t1522);
        const V t2348 = part<1>(t1538);
        // spectrum block of 7, multiplier 4
        const V t2349 = c[2] * t2348;
        const V t2350 = t2347 - t2349;
        const V t2351 = part<1>(t1555);
        const V t2352 = c[0] * t2351;
        const V t2353 = t2350 - t2352;
        const P t2354 = joined(t1541, t2353);
        // spectrum block of 7, multiplier 4
        const V t2355 = -c[0] * t1560;
        const V t2356 = part<1>(t1520);
        const P t2357 = joined(t2355, t2356);
        const P t2358 = t2354 - t2357;
        const P t2359 = P(-c[4], c[4]) * t2176;
        const P t2360 = c[5] * t2161;
        const P t2361 = t2359 + t2360;
        const P t2362 = c[3] * t2146;
        const P t2363 = t2361 - t2362;
        const P t2364 = flipped<0, 1>(t2363);
        const P t2365 = t2358 + t2364;
        const P t2366 = flipped<1, 0>(t2358);
        const P t2367 = t2366 + t2363;
        const V t2368 = part<1>(t1556);
        // spectrum block of 7, multiplier 4
        const V t2369 = t2356 + t2368;
        const V t2370 = c[0] * t2348;
        const V t2371 = t2369 + t2370;
        const V t2372 = c[1] * t2351;
        const P t2373 = joined(t1562, t2372);
        const P t2374 = joined(t1521, t2371);
        // spectrum block of 7, multiplier 4
        const P t2375 = t2373 - t2374;
        const P t2376 = c[5] * t2176;
        const P t2377 = P(c[3], -c[3]) * t2161;
        const P t2378 = t2376 + t2377;
        const P t2379 = flipped<1, 0>(t2378);
        const P t2380 = c[4] * t2146;
        const P t2381 = t2379 + t2380;
        const P t2382 = t2375 - t2381;
        const P t2383 = t2375 + t2381;
        const V t2384 = part<1>(t1563);
        // spectrum block of 7, multiplier 4
        const V t2385 = t2356 + t2384;
        const V t2386 = c[1] * t2348;
        const V t2387 = t2386 - t2385;
        const P t2388 = joined(t1568, t2387);
        const V t2389 = c[2] * t2351;
        const P t2390 = joined(t1521, t2389);
        // spectrum block of 7, multiplier 4
        const P t2391 = t2388 - t2390;
        const P t2392 = c[3] * t2176;
        const P t2393 = P(c[4], -c[4]) * t2161;
        const P t2394 = t2392 + t2393;
        const P t2395 = P(c[5], -c[5]) * t2146;
        const P t2396 = t2394 + t2395;
        const P t2397 = flipped<0, 1>(t2396);
        const P t2398 = t2391 + t2397;
        const P t2399 = t2391 - t2397;
        // spectrum block of 2
        const P t2400 = t2192 + t2346;
        const P t2401 = t2192 - t2346;
        // spectrum block of 2
        const P t2402 = t2400 + t2252;
        const P t2403 = t2400 - t2252;
        // spectrum block of 2
        const P t2404 = t2401 + t2251;
        const P t2405 = t2401 - t2251;
        // spectrum block of 2
        const P t2406 = t2233 + t2399;
        const P t2407 = t2233 - t2399;
        // spectrum block of 2
        const P t2408 = t2406 + t2342;
        const P t2409 = t2406 - t2342;
        // spectrum block of 2
        const P t2410 = t2407 + t2341;
        const P t2411 = t2407 - t2341;
        const P t2412 = flipped<1, 0>(t2365);
        // spectrum block of 2
        const P t2413 = t2204 + t2412;
        const P t2414 = t2204 - t2412;
        // spectrum block of 2
        const P t2415 = t2413 + t2282;
        const P t2416 = t2413 - t2282;
        // spectrum block of 2
        const P t2417 = t2414 + t2281;
        const P t2418 = t2414 - t2281;
        // spectrum block of 2
        const P t2419 = t2219 + t2383;
        const P t2420 = t2219 - t2383;
        // spectrum block of 2
        const P t2421 = t2419 + t2314;
        const P t2422 = t2419 - t2314;
        const P t2423 = flipped<0, 1>(t2313);
        // spectrum block of 2
        const P t2424 = t2420 + t2423;
        const P t2425 = t2420 - t2423;
        // spectrum block of 2
        const P t2426 = t2218 + t2382;
        const P t2427 = t2218 - t2382;
        // spectrum block of 2
        const P t2428 = t2426 + t2311;
        const P t2429 = t2426 - t2311;
        // spectrum block of 2
        const P t2430 = t2427 + t2310;
        const P t2431 = t2427 - t2310;
        // spectrum block of 2
        const P t2432 = t2205 + t2367;
        const P t2433 = t2205 - t2367;
        // spectrum block of 2
        const P t2434 = t2432 + t2284;
        const P t2435 = t2432 - t2284;
        // spectrum block of 2
        const P t2436 = t2433 + t2283;
        const P t2437 = t2433 - t2283;
        // spectrum block of 2
        const P t2438 = t2232 + t2398;
        const P t2439 = t2232 - t2398;
        // spectrum block of 2
        const P t2440 = t2438 + t2340;
        const P t2441 = t2438 - t2340;
        // spectrum block of 2
        const P t2442 = t2439 + t2339;
        const P t2443 = t2439 - t2339;
        const P t2444 = flipped<0, 1>(t2138);
        // spectrum block of 29, multiplier 2
        const P t2445 = t2103 + t2444;
        // spectrum block of 2
        const P t2446 = t2084 + t2445;
        io.pair(1, t2446);
        const P t2447 = t2084 - t2445;
        io.pair(58, t2447);
        // spectrum block of 2
        const P t2448 = t2044 + t2402;
        io.pair(15, t2448);
        const P t2449 = t2044 - t2402;
        io.pair(44, t2449);
        // spectrum block of 2
        const P t2450 = t2076 + t2436;
        io.pair(48, t2450);
        const P t2451 = t2076 - t2436;
        io.pair(11, t2451);
        // spectrum block of 2
        const P t2452 = t2070 + t2430;
        io.pair(12, t2452);
        const P t2453 = t2070 - t2430;
        io.pair(47, t2453);
        // spectrum block of 2
        const P t2454 = t2063 + t2422;
        io.pair(3, t2454);
        const P t2455 = t2063 - t2422;
        io.pair(56, t2455);
        // spectrum block of 2
        const P t2456 = t2075 + t2435;
        io.pair(45, t2456);
        const P t2457 = t2075 - t2435;
        io.pair(14, t2457);
        // spectrum block of 2
        const P t2458 = t2057 + t2416;
        io.pair(26, t2458);
        const P t2459 = t2057 - t2416;
        io.pair(33, t2459);
        // spectrum block of 2
        const P t2460 = t2068 + t2428;
        io.pair(36, t2460);
        const P t2461 = t2068 - t2428;
        io.pair(23, t2461);
        // spectrum block of 2
        const P t2462 = t2053 + t2411;
        io.pair(9, t2462);
        const P t2463 = t2053 - t2411;
        io.pair(50, t2463);
        // spectrum block of 2
        const P t2464 = t2051 + t2409;
        io.pair(17, t2464);
        const P t2465 = t2051 - t2409;
        io.pair(42, t2465);
        // spectrum block of 2
        const P t2466 = t2065 + t2425;
        io.pair(19, t2466);
        const P t2467 = t2065 - t2425;
        io.pair(40, t2467);
        // spectrum block of 2
        const P t2468 = t2082 + t2442;
        io.pair(49, t2468);
        const P t2469 = t2082 - t2442;
        io.pair(10, t2469);
        // spectrum block of 2
        const P t2470 = t2047 + t2405;
        io.pair(27, t2470);
        const P t2471 = t2047 - t2405;
        io.pair(32, t2471);
        // spectrum block of 2
        const P t2472 = t2081 + t2441;
        io.pair(51, t2472);
        const P t2473 = t2081 - t2441;
        io.pair(8, t2473);
        // spectrum block of 2
        const P t2474 = t2058 + t2417;
        io.pair(57, t2474);
        const P t2475 = t2058 - t2417;
        io.pair(2, t2475);
        // spectrum block of 2
        const P t2476 = t2059 + t2418;
        io.pair(29, t2476);
        const P t2477 = t2059 - t2418;
        io.pair(30, t2477);
        // spectrum block of 2
        const P t2478 = t2080 + t2440;
        io.pair(22, t2478);
        const P t2479 = t2080 - t2440;
        io.pair(37, t2479);
        // spectrum block of 2
        const P t2480 = t2046 + t2404;
        io.pair(35, t2480);
        const P t2481 = t2046 - t2404;
        io.pair(24, t2481);
        // spectrum block of 2
        const P t2482 = t2083 + t2443;
        io.pair(53, t2482);
        const P t2483 = t2083 - t2443;
        io.pair(6, t2483);
        // spectrum block of 2
        const P t2484 = t2064 + t2424;
        io.pair(28, t2484);
        const P t2485 = t2064 - t2424;
        io.pair(31, t2485);
        // spectrum block of 2
        const P t2486 = t2050 + t2408;
        io.pair(7, t2486);
        const P t2487 = t2050 - t2408;
        io.pair(52, t2487);
        // spectrum block of 2
        const P t2488 = t2052 + t2410;
        io.pair(46, t2488);
        const P t2489 = t2052 - t2410;
        io.pair(13, t2489);
        // spectrum block of 2
        const P t2490 = t2069 + t2429;
        io.pair(41, t2490);
        const P t2491 = t2069 - t2429;
        io.pair(18, t2491);
        // spectrum block of 2
        const P t2492 = t2056 + t2415;
        io.pair(25, t2492);
        const P t2493 = t2056 - t2415;
        io.pair(34, t2493);
        // spectrum block of 2
        const P t2494 = t2074 + t2434;
        io.pair(21, t2494);
        const P t2495 = t2074 - t2434;
        io.pair(38, t2495);
        // spectrum block of 2
        const P t2496 = t2062 + t2421;
        io.pair(20, t2496);
        const P t2497 = t2062 - t2421;
        io.pair(39, t2497);
        // spectrum block of 2
        const P t2498 = t2071 + t2431;
        io.pair(5, t2498);
        const P t2499 = t2071 - t2431;
        io.pair(54, t2499);
        // spectrum block of 2
        const P t2500 = t2077 + t2437;
        io.pair(16, t2500);
        const P t2501 = t2077 - t2437;
        io.pair(43, t2501);
        // spectrum block of 2
        const P t2502 = t2045 + t2403;
        io.pair(4, t2502);
        const P t2503 = t2045 - t2403;
        io.pair(55, t2503);
    }
};

}  // namespace zulg
