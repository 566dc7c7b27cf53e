// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 59.
// Inverse DFT to 59 real points, Rader 2, 29.
// 669 additions, 671 subtractions, 1012 multiplications (1071 with `scale`); 117 constants; 73 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<59> {
    static constexpr int steps = 2411;  // with `scale`
    static constexpr double inverseRoot = 0.13018891098082389;  // 1/sqrt(59), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.3777140697119294,  // c[6]: Q[7] of 29
        0.07274108340629196,  // c[7]: -P[7] of 29
        0.03571428571428571,  // c[8]: 1/28
        0.2670821358430261,  // c[9]: -Q[1] of 29
        0.2768145884649087,  // c[10]: P[1] of 29
        0.32142566997698113,  // c[11]: Q[2] of 29
        0.21129297752958617,  // c[12]: P[2] of 29
        0.2491897008367598,  // c[13]: Q[3] of 29
        0.29302504444220384,  // c[14]: P[3] of 29
        0.19919633623825483,  // c[15]: Q[4] of 29
        0.3290592701972177,  // c[16]: P[4] of 29
        0.27532091814028564,  // c[17]: -Q[5] of 29
        0.26862162181749166,  // c[18]: P[5] of 29
        0.35927022128602587,  // c[19]: Q[6] of 29
        0.13741940099767344,  // c[20]: P[6] of 29
        0.21267702351981235,  // c[21]: Q[8] of 29
        0.3205115713047231,  // c[22]: -P[8] of 29
        0.38303879792644835,  // c[23]: -Q[9] of 29
        0.035220206650882144,  // c[24]: P[9] of 29
        0.0825185747421179,  // c[25]: -Q[10] of 29
        0.37569917287106036,  // c[26]: P[10] of 29
        0.28787780453569184,  // c[27]: -Q[11] of 29
        0.25511870438911255,  // c[28]: -P[11] of 29
        0.37467556794599116,  // c[29]: Q[12] of 29
        0.0870482765930398,  // c[30]: P[12] of 29
        0.3714454456857387,  // c[31]: Q[13] of 29
        0.0999373031094614,  // c[32]: -P[13] of 29
        0.192327314540518,  // c[33]: beta of 29
        0.21044290248272673,  // c[34]: -P[1] of 29
        0.3219828698364479,  // c[35]: -Q[1] of 29
        0.19791793485411824,  // c[36]: Q[2] of 29
        0.3298297662985413,  // c[37]: P[2] of 29
        0.384463442096457,  // c[38]: -P[3] of 29
        0.012126226322052493,  // c[39]: Q[3] of 29
        0.1330720128259635,  // c[40]: -Q[4] of 29
        0.3609030660383976,  // c[41]: P[4] of 29
        0.13150502224471186,  // c[42]: P[5] of 29
        0.36147698792300353,  // c[43]: -Q[5] of 29
        0.054028864524680344,  // c[44]: -Q[6] of 29
        0.38084126020120657,  // c[45]: P[6] of 29
        0.26515058713755163,  // c[46]: Q[8] of 29
        0.2786653006997481,  // c[47]: P[8] of 29
        0.3603875070846735,  // c[48]: P[9] of 29
        0.13446199615788765,  // c[49]: Q[9] of 29
        0.24228395147216553,  // c[50]: -Q[10] of 29
        0.2987602224736465,  // c[51]: -P[10] of 29
        0.019970959548377194,  // c[52]: -P[11] of 29
        0.38413584113980626,  // c[53]: Q[11] of 29
        0.3753398540149231,  // c[54]: -Q[12] of 29
        0.08413784916151361,  // c[55]: P[12] of 29
        0.1800860537573993,  // c[56]: -P[13] of 29
        0.3398943908268515,  // c[57]: -Q[13] of 29
        0.014845190038075228,  // c[58]: P[1] of 59
        0.26445074818613296,  // c[59]: -Q[1] of 59
        0.044264026096884644,  // c[60]: -Q[2] of 59
        0.26114224835741606,  // c[61]: P[2] of 59
        0.25083970924567417,  // c[62]: -P[3] of 59
        0.08505303139228909,  // c[63]: -Q[3] of 59
        0.2644019076085337,  // c[64]: Q[4] of 59
        0.015691052751184383,  // c[65]: -P[4] of 59
        0.02305879622432487,  // c[66]: P[5] of 59
        0.26386145948235246,  // c[67]: Q[5] of 59
        0.2561089569283855,  // c[68]: Q[6] of 59
        0.06754835352935287,  // c[69]: P[6] of 59
        0.25249265337152266,  // c[70]: -P[7] of 59
        0.08001273571676054,  // c[71]: -Q[7] of 59
        0.11501162603233117,  // c[72]: Q[8] of 59
        0.238593595389464,  // c[73]: P[8] of 59
        0.0638323763819381,  // c[74]: P[9] of 59
        0.2570603151186636,  // c[75]: -Q[9] of 59
        0.240603592321257,  // c[76]: Q[10] of 59
        0.11074515450157817,  // c[77]: P[10] of 59
        0.21629167322460174,  // c[78]: P[11] of 59
        0.15288063964143453,  // c[79]: Q[11] of 59
        0.08920241088977601,  // c[80]: Q[12] of 59
        0.24939428176067635,  // c[81]: -P[12] of 59
        0.11725683642615767,  // c[82]: P[13] of 59
        0.2374982361930323,  // c[83]: Q[13] of 59
        0.22888251085220956,  // c[84]: Q[14] of 59
        0.13329431386769738,  // c[85]: -P[14] of 59
        0.26378234639543136,  // c[86]: P[15] of 59
        0.02394684976343933,  // c[87]: -Q[15] of 59
        0.11457256668934328,  // c[88]: -Q[16] of 59
        0.23880474209212857,  // c[89]: P[16] of 59
        0.210117561407044,  // c[90]: -P[17] of 59
        0.1612612423114406,  // c[91]: Q[17] of 59
        0.12353172004850395,  // c[92]: -Q[18] of 59
        0.23429573625085479,  // c[93]: P[18] of 59
        0.2377423799688404,  // c[94]: -P[19] of 59
        0.11676103224202658,  // c[95]: -Q[19] of 59
        0.21542011720118803,  // c[96]: Q[20] of 59
        0.15410629769252931,  // c[97]: -P[20] of 59
        0.1297148387582923,  // c[98]: -P[21] of 59
        0.2309299428168255,  // c[99]: Q[21] of 59
        0.1670393661682332,  // c[100]: Q[22] of 59
        0.20555395406945343,  // c[101]: P[22] of 59
        0.0487750221655463,  // c[102]: P[23] of 59
        0.26033742546207705,  // c[103]: -Q[23] of 59
        0.008222825940389141,  // c[104]: -Q[24] of 59
        0.26473942475012313,  // c[105]: -P[24] of 59
        0.23533256479944387,  // c[106]: -P[25] of 59
        0.12154489634858227,  // c[107]: Q[25] of 59
        0.14536461098959946,  // c[108]: Q[26] of 59
        0.2214129800967289,  // c[109]: P[26] of 59
        0.25925932295435405,  // c[110]: P[27] of 59
        0.05421421718259892,  // c[111]: -Q[27] of 59
        0.0854499159287465,  // c[112]: Q[28] of 59
        0.2507047860557158,  // c[113]: P[28] of 59
        0.017241379310344827,  // c[114]: 1/58
        0.13243354737704496,  // c[115]: -beta of 59
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        const V x4r = io.re(4);
        const V t6 = two * x4r;
        const V x4i = io.im(4);
        const V t7 = two * x4i;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        const V x5i = io.im(5);
        const V t9 = two * x5i;
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x6i = io.im(6);
        const V t11 = two * x6i;
        const V x7r = io.re(7);
        const V t12 = two * x7r;
        const V x7i = io.im(7);
        const V t13 = two * x7i;
        const V x8r = io.re(8);
        const V t14 = two * x8r;
        const V x8i = io.im(8);
        const V t15 = two * x8i;
        const V x9r = io.re(9);
        const V t16 = two * x9r;
        const V x9i = io.im(9);
        const V t17 = two * x9i;
        const V x10r = io.re(10);
        const V t18 = two * x10r;
        const V x10i = io.im(10);
        const V t19 = two * x10i;
        const V x11r = io.re(11);
        const V t20 = two * x11r;
        const V x11i = io.im(11);
        const V t21 = two * x11i;
        const V x12r = io.re(12);
        const V t22 = two * x12r;
        const V x12i = io.im(12);
        const V t23 = two * x12i;
        const V x13r = io.re(13);
        const V t24 = two * x13r;
        const V x13i = io.im(13);
        const V t25 = two * x13i;
        const V x14r = io.re(14);
        const V t26 = two * x14r;
        const V x14i = io.im(14);
        const V t27 = two * x14i;
        const V x15r = io.re(15);
        const V t28 = two * x15r;
        const V x15i = io.im(15);
        const V t29 = two * x15i;
        const V x16r = io.re(16);
        const V t30 = two * x16r;
        const V x16i = io.im(16);
        const V t31 = two * x16i;
        const V x17r = io.re(17);
        const V t32 = two * x17r;
        const V x17i = io.im(17);
        const V t33 = two * x17i;
        const V x18r = io.re(18);
        const V t34 = two * x18r;
        const V x18i = io.im(18);
        const V t35 = two * x18i;
        const V x19r = io.re(19);
        const V t36 = two * x19r;
        const V x19i = io.im(19);
        const V t37 = two * x19i;
        const V x20r = io.re(20);
        const V t38 = two * x20r;
        const V x20i = io.im(20);
        const V t39 = two * x20i;
        const V x21r = io.re(21);
        const V t40 = two * x21r;
        const V x21i = io.im(21);
        const V t41 = two * x21i;
        const V x22r = io.re(22);
        const V t42 = two * x22r;
        const V x22i = io.im(22);
        const V t43 = two * x22i;
        const V x23r = io.re(23);
        const V t44 = two * x23r;
        const V x23i = io.im(23);
        const V t45 = two * x23i;
        const V x24r = io.re(24);
        const V t46 = two * x24r;
        const V x24i = io.im(24);
        const V t47 = two * x24i;
        const V x25r = io.re(25);
        const V t48 = two * x25r;
        const V x25i = io.im(25);
        const V t49 = two * x25i;
        const V x26r = io.re(26);
        const V t50 = two * x26r;
        const V x26i = io.im(26);
        const V t51 = two * x26i;
        const V x27r = io.re(27);
        const V t52 = two * x27r;
        const V x27i = io.im(27);
        const V t53 = two * x27i;
        const V x28r = io.re(28);
        const V t54 = two * x28r;
        const V x28i = io.im(28);
        const V t55 = two * x28i;
        const V x29r = io.re(29);
        const V t56 = two * x29r;
        const V x29i = io.im(29);
        const V t57 = two * x29i;
        // real block of 7, multiplier 4
        const V t58 = t24 + t54;
        const V t59 = t24 - t54;
        const V t60 = t22 + t46;
        const V t61 = t22 - t46;
        const V t62 = t20 + t18;
        const V t63 = t20 - t18;
        const V t64 = t58 + t60;
        const V t65 = t64 + t62;
        const V t66 = t65 + t2;
        const V t67 = c[0] * t58;
        const V t68 = t2 - t67;
        const V t69 = c[1] * t60;
        const V t70 = t68 + t69;
        const V t71 = c[2] * t62;
        const V t72 = t70 - t71;
        const V t73 = c[3] * t59;
        const V t74 = c[4] * t61;
        const V t75 = c[5] * t63;
        const V t76 = t73 + t74;
        const V t77 = t76 - t75;
        const V t78 = c[1] * t58;
        const V t79 = c[2] * t60;
        const V t80 = t78 - t79;
        const V t81 = c[0] * t62;
        const V t82 = t80 - t81;
        const V t83 = t82 + t2;
        const V t84 = c[4] * t59;
        const V t85 = c[5] * t61;
        const V t86 = c[3] * t63;
        const V t87 = t85 + t86;
        const V t88 = t87 - t84;
        const V t89 = c[2] * t58;
        const V t90 = t2 - t89;
        const V t91 = c[0] * t60;
        const V t92 = t90 - t91;
        const V t93 = c[1] * t62;
        const V t94 = t92 + t93;
        const V t95 = c[5] * t59;
        const V t96 = c[3] * t61;
        const V t97 = c[4] * t63;
        const V t98 = t95 + t96;
        const V t99 = t98 + t97;
        // real block of 7, multiplier 4
        const V t100 = t12 + t38;
        const V t101 = t12 - t38;
        const V t102 = t44 + t28;
        const V t103 = t44 - t28;
        const V t104 = t40 + t42;
        const V t105 = t40 - t42;
        const V t106 = t100 + t102;
        const V t107 = t106 + t104;
        const V t108 = t107 + t48;
        const V t109 = c[0] * t100;
        const V t110 = t48 - t109;
        const V t111 = c[1] * t102;
        const V t112 = t110 + t111;
        const V t113 = c[2] * t104;
        const V t114 = t112 - t113;
        const V t115 = c[3] * t101;
        const V t116 = c[4] * t103;
        const V t117 = c[5] * t105;
        const V t118 = t115 + t116;
        const V t119 = t118 - t117;
        const V t120 = c[1] * t100;
        const V t121 = c[2] * t102;
        const V t122 = t120 - t121;
        const V t123 = c[0] * t104;
        const V t124 = t122 - t123;
        const V t125 = t124 + t48;
        const V t126 = c[4] * t101;
        const V t127 = c[5] * t103;
        const V t128 = c[3] * t105;
        const V t129 = t127 + t128;
        const V t130 = t129 - t126;
        const V t131 = c[2] * t100;
        const V t132 = t48 - t131;
        const V t133 = c[0] * t102;
        const V t134 = t132 - t133;
        const V t135 = c[1] * t104;
        const V t136 = t134 + t135;
        const V t137 = c[5] * t101;
        const V t138 = c[3] * t103;
        const V t139 = c[4] * t105;
        const V t140 = t137 + t138;
        const V t141 = t140 + t139;
        // real block of 7, multiplier 4
        const V t142 = t16 + t36;
        const V t143 = t16 - t36;
        const V t144 = t8 + t52;
        const V t145 = t8 - t52;
        const V t146 = t30 + t10;
        const V t147 = t30 - t10;
        const V t148 = t142 + t144;
        const V t149 = t148 + t146;
        const V t150 = t149 + t56;
        const V t151 = c[0] * t142;
        const V t152 = t56 - t151;
        const V t153 = c[1] * t144;
        const V t154 = t152 + t153;
        const V t155 = c[2] * t146;
        const V t156 = t154 - t155;
        const V t157 = c[3] * t143;
        const V t158 = c[4] * t145;
        const V t159 = c[5] * t147;
        const V t160 = t157 + t158;
        const V t161 = t160 - t159;
        const V t162 = c[1] * t142;
        const V t163 = c[2] * t144;
        const V t164 = t162 - t163;
        const V t165 = c[0] * t146;
        const V t166 = t164 - t165;
        const V t167 = t166 + t56;
        const V t168 = c[4] * t143;
        const V t169 = c[5] * t145;
        const V t170 = c[3] * t147;
        const V t171 = t169 + t170;
        const V t172 = t171 - t168;
        const V t173 = c[2] * t142;
        const V t174 = t56 - t173;
        const V t175 = c[0] * t144;
        const V t176 = t174 - t175;
        const V t177 = c[1] * t146;
        const V t178 = t176 + t177;
        const V t179 = c[5] * t143;
        const V t180 = c[3] * t145;
        const V t181 = c[4] * t147;
        const V t182 = t179 + t180;
        const V t183 = t182 + t181;
        // real block of 7, multiplier 4
        const V t184 = t32 + t4;
        const V t185 = t32 - t4;
        const V t186 = t34 + t6;
        const V t187 = t34 - t6;
        const V t188 = t26 + t14;
        const V t189 = t26 - t14;
        const V t190 = t184 + t186;
        const V t191 = t190 + t188;
        const V t192 = t191 + t50;
        const V t193 = c[0] * t184;
        const V t194 = t50 - t193;
        const V t195 = c[1] * t186;
        const V t196 = t194 + t195;
        const V t197 = c[2] * t188;
        const V t198 = t196 - t197;
        const V t199 = c[3] * t185;
        const V t200 = c[4] * t187;
        const V t201 = c[5] * t189;
        const V t202 = t199 + t200;
        const V t203 = t202 - t201;
        const V t204 = c[1] * t184;
        const V t205 = c[2] * t186;
        const V t206 = t204 - t205;
        const V t207 = c[0] * t188;
        const V t208 = t206 - t207;
        const V t209 = t208 + t50;
        const V t210 = c[4] * t185;
        const V t211 = c[5] * t187;
        const V t212 = c[3] * t189;
        const V t213 = t211 + t212;
        const V t214 = t213 - t210;
        const V t215 = c[2] * t184;
        const V t216 = t50 - t215;
        const V t217 = c[0] * t186;
        const V t218 = t216 - t217;
        const V t219 = c[1] * t188;
        const V t220 = t218 + t219;
        const V t221 = c[5] * t185;
        const V t222 = c[3] * t187;
        const V t223 = c[4] * t189;
        const V t224 = t221 + t222;
        const V t225 = t224 + t223;
        // real block of 2
        const V t226 = t66 + t150;
        const V t227 = t66 - t150;
        // real block of 2
        const V t228 = t108 + t192;
        const V t229 = t108 - t192;
        // real block of 2
        const V t230 = t226 + t228;
        const V t231 = t226 - t228;
        // complex block of 2
        const V t232 = t72 + t156;
        const V t233 = t77 + t161;
        const V t234 = t72 - t156;
        const V t235 = t77 - t161;
        // complex block of 2
        const V t236 = t114 + t198;
        const V t237 = t119 + t203;
        const V t238 = t114 - t198;
        const V t239 = t119 - t203;
        // complex block of 2
        const V t240 = t232 + t236;
        const V t241 = t233 + t237;
        const V t242 = t232 - t236;
        const V t243 = t233 - t237;
        // complex block of 2
        const V t244 = t234 - t239;
        const V t245 = t235 + t238;
        const V t246 = t234 + t239;
        const V t247 = t235 - t238;
        // complex block of 2
        const V t248 = t83 + t167;
        const V t249 = t88 + t172;
        const V t250 = t83 - t167;
        const V t251 = t88 - t172;
        // complex block of 2
        const V t252 = t125 + t209;
        const V t253 = t130 + t214;
        const V t254 = t125 - t209;
        const V t255 = t130 - t214;
        // complex block of 2
        const V t256 = t248 + t252;
        const V t257 = t249 + t253;
        const V t258 = t248 - t252;
        const V t259 = t249 - t253;
        // complex block of 2
        const V t260 = t250 - t255;
        const V t261 = t251 + t254;
        const V t262 = t250 + t255;
        const V t263 = t251 - t254;
        // complex block of 2
        const V t264 = t94 + t178;
        const V t265 = t99 + t183;
        const V t266 = t94 - t178;
        const V t267 = t99 - t183;
        // complex block of 2
        const V t268 = t136 + t220;
        const V t269 = t141 + t225;
        const V t270 = t136 - t220;
        const V t271 = t141 - t225;
        // complex block of 2
        const V t272 = t264 + t268;
        const V t273 = t265 + t269;
        const V t274 = t264 - t268;
        const V t275 = t265 - t269;
        // complex block of 2
        const V t276 = t266 - t271;
        const V t277 = t267 + t270;
        const V t278 = t266 + t271;
        const V t279 = t267 - t270;
        // real block of 29
        const V t280 = t0 + t230;
        const V t281 = c[8] * t230;
        const V t282 = t0 - t281;
        const V t283 = c[9] * t263;
        const V t284 = c[10] * t262;
        const V t285 = t284 + t283;
        const V t286 = c[9] * t262;
        const V t287 = c[10] * t263;
        const V t288 = t287 - t286;
        const V t289 = c[11] * t275;
        const V t290 = c[12] * t274;
        const V t291 = t290 + t289;
        const V t292 = c[11] * t274;
        const V t293 = c[12] * t275;
        const V t294 = t292 - t293;
        const V t295 = c[13] * t247;
        const V t296 = c[14] * t246;
        const V t297 = t296 + t295;
        const V t298 = c[13] * t246;
        const V t299 = c[14] * t247;
        const V t300 = t298 - t299;
        const V t301 = c[15] * t241;
        const V t302 = c[16] * t240;
        const V t303 = t302 - t301;
        const V t304 = c[15] * t240;
        const V t305 = c[16] * t241;
        const V t306 = t305 + t304;
        const V t307 = c[17] * t279;
        const V t308 = c[18] * t278;
        const V t309 = t308 + t307;
        const V t310 = c[17] * t278;
        const V t311 = c[18] * t279;
        const V t312 = t311 - t310;
        const V t313 = c[19] * t259;
        const V t314 = c[20] * t258;
        const V t315 = t314 + t313;
        const V t316 = c[19] * t258;
        const V t317 = c[20] * t259;
        const V t318 = t316 - t317;
        const V t319 = c[6] * t229;
        const V t320 = c[7] * t227;
        const V t321 = t320 + t319;
        const V t322 = c[6] * t227;
        const V t323 = c[7] * t229;
        const V t324 = t322 - t323;
        const V t325 = c[21] * t257;
        const V t326 = c[22] * t256;
        const V t327 = t326 + t325;
        const V t328 = c[21] * t256;
        const V t329 = c[22] * t257;
        const V t330 = t328 - t329;
        const V t331 = c[23] * t277;
        const V t332 = c[24] * t276;
        const V t333 = t332 - t331;
        const V t334 = c[23] * t276;
        const V t335 = c[24] * t277;
        const V t336 = t335 + t334;
        const V t337 = c[25] * t243;
        const V t338 = c[26] * t242;
        const V t339 = t338 - t337;
        const V t340 = c[25] * t242;
        const V t341 = c[26] * t243;
        const V t342 = t341 + t340;
        const V t343 = c[27] * t245;
        const V t344 = c[28] * t244;
        const V t345 = t343 - t344;
        const V t346 = c[27] * t244;
        const V t347 = c[28] * t245;
        const V t348 = t347 + t346;
        const V t349 = c[29] * t273;
        const V t350 = c[30] * t272;
        const V t351 = t350 - t349;
        const V t352 = c[29] * t272;
        const V t353 = c[30] * t273;
        const V t354 = t353 + t352;
        const V t355 = c[31] * t261;
        const V t356 = c[32] * t260;
        const V t357 = t355 - t356;
        const V t358 = c[31] * t260;
        const V t359 = c[32] * t261;
        const V t360 = t359 + t358;
        const V t361 = c[33] * t231;
        // spectrum block of 2
        const V t362 = t282 + t361;
        const V t363 = t282 - t361;
        // complex block of 2
        const V t364 = t306 + t342;
        const V t365 = t303 + t339;
        const V t366 = t306 - t342;
        const V t367 = t303 - t339;
        // complex block of 2
        const V t368 = t330 - t318;
        const V t369 = t315 - t327;
        const V t370 = t330 + t318;
        const V t371 = t327 + t315;
        // complex block of 2
        const V t372 = t354 - t294;
        const V t373 = t351 + t291;
        const V t374 = t354 + t294;
        const V t375 = t351 - t291;
        // spectrum block of 7, multiplier 2
        const V t376 = t365 + t369;
        const V t377 = t376 + t373;
        const V t378 = t377 + t362;
        const V t379 = c[1] * t365;
        const V t380 = c[2] * t369;
        const V t381 = t379 - t380;
        const V t382 = c[0] * t373;
        const V t383 = t381 - t382;
        const V t384 = t383 + t362;
        const V t385 = c[4] * t364;
        const V t386 = c[5] * t368;
        const V t387 = t385 + t386;
        const V t388 = c[3] * t372;
        const V t389 = t387 + t388;
        const V t390 = t384 - t389;
        const V t391 = t384 + t389;
        const V t392 = c[2] * t365;
        const V t393 = t362 - t392;
        const V t394 = c[0] * t369;
        const V t395 = t393 - t394;
        const V t396 = c[1] * t373;
        const V t397 = t395 + t396;
        const V t398 = c[5] * t364;
        const V t399 = c[3] * t368;
        const V t400 = t398 - t399;
        const V t401 = c[4] * t372;
        const V t402 = t400 - t401;
        const V t403 = t397 - t402;
        const V t404 = t397 + t402;
        const V t405 = c[0] * t365;
        const V t406 = t362 - t405;
        const V t407 = c[1] * t369;
        const V t408 = t406 + t407;
        const V t409 = c[2] * t373;
        const V t410 = t408 - t409;
        const V t411 = c[3] * t364;
        const V t412 = c[4] * t368;
        const V t413 = t411 - t412;
        const V t414 = c[5] * t372;
        const V t415 = t413 + t414;
        const V t416 = t410 - t415;
        const V t417 = t410 + t415;
        // spectrum block of 7, multiplier 2
        const V t418 = t367 - t371;
        const V t419 = t418 + t375;
        const V t420 = t419 + t363;
        const V t421 = c[1] * t367;
        const V t422 = c[2] * t371;
        const V t423 = t421 + t422;
        const V t424 = c[0] * t375;
        const V t425 = t423 - t424;
        const V t426 = t425 + t363;
        const V t427 = c[4] * t366;
        const V t428 = c[5] * t370;
        const V t429 = t427 + t428;
        const V t430 = c[3] * t374;
        const V t431 = t429 + t430;
        const V t432 = t426 - t431;
        const V t433 = t426 + t431;
        const V t434 = c[2] * t367;
        const V t435 = t363 - t434;
        const V t436 = c[0] * t371;
        const V t437 = t435 + t436;
        const V t438 = c[1] * t375;
        const V t439 = t437 + t438;
        const V t440 = c[5] * t366;
        const V t441 = c[3] * t370;
        const V t442 = t440 - t441;
        const V t443 = c[4] * t374;
        const V t444 = t442 - t443;
        const V t445 = t439 - t444;
        const V t446 = t439 + t444;
        const V t447 = c[0] * t367;
        const V t448 = t363 - t447;
        const V t449 = c[1] * t371;
        const V t450 = t448 - t449;
        const V t451 = c[2] * t375;
        const V t452 = t450 - t451;
        const V t453 = c[3] * t366;
        const V t454 = c[4] * t370;
        const V t455 = t453 - t454;
        const V t456 = c[5] * t374;
        const V t457 = t455 + t456;
        const V t458 = t452 - t457;
        const V t459 = t452 + t457;
        // complex block of 2
        const V t460 = t357 - t285;
        const V t461 = t288 + t360;
        const V t462 = t285 + t357;
        const V t463 = t288 - t360;
        // mirrored skew block of 14
        const V t464 = c[2] * t462;
        const V t465 = c[5] * t463;
        const V t466 = t465 + t464;
        const V t467 = c[2] * t463;
        const V t468 = c[5] * t462;
        const V t469 = t467 - t468;
        // complex block of 2
        const V t470 = t345 - t297;
        const V t471 = t300 - t348;
        const V t472 = t297 + t345;
        const V t473 = t300 + t348;
        // mirrored skew block of 14
        const V t474 = c[1] * t472;
        const V t475 = c[4] * t473;
        const V t476 = t475 + t474;
        const V t477 = c[1] * t473;
        const V t478 = c[4] * t472;
        const V t479 = t477 - t478;
        // complex block of 2
        const V t480 = t333 - t309;
        const V t481 = t312 - t336;
        const V t482 = t309 + t333;
        const V t483 = t312 + t336;
        // mirrored skew block of 14
        const V t484 = c[0] * t482;
        const V t485 = c[3] * t483;
        const V t486 = t485 + t484;
        const V t487 = c[0] * t483;
        const V t488 = c[3] * t482;
        const V t489 = t487 - t488;
        // spectrum block of 7, multiplier 2
        const V t490 = t481 + t471;
        const V t491 = t490 + t461;
        const V t492 = t491 + t324;
        const V t493 = c[1] * t481;
        const V t494 = c[2] * t471;
        const V t495 = t493 - t494;
        const V t496 = c[0] * t461;
        const V t497 = t495 - t496;
        const V t498 = t497 + t324;
        const V t499 = c[4] * t480;
        const V t500 = c[5] * t470;
        const V t501 = t499 + t500;
        const V t502 = c[3] * t460;
        const V t503 = t501 + t502;
        const V t504 = t498 + t503;
        const V t505 = t498 - t503;
        const V t506 = c[2] * t481;
        const V t507 = t324 - t506;
        const V t508 = c[0] * t471;
        const V t509 = t507 - t508;
        const V t510 = c[1] * t461;
        const V t511 = t509 + t510;
        const V t512 = c[5] * t480;
        const V t513 = c[3] * t470;
        const V t514 = t513 - t512;
        const V t515 = c[4] * t460;
        const V t516 = t514 + t515;
        const V t517 = t511 - t516;
        const V t518 = t511 + t516;
        const V t519 = c[0] * t481;
        const V t520 = t324 - t519;
        const V t521 = c[1] * t471;
        const V t522 = t520 + t521;
        const V t523 = c[2] * t461;
        const V t524 = t522 - t523;
        const V t525 = c[3] * t480;
        const V t526 = c[4] * t470;
        const V t527 = t526 - t525;
        const V t528 = c[5] * t460;
        const V t529 = t527 - t528;
        const V t530 = t524 - t529;
        const V t531 = t524 + t529;
        // spectrum block of 7, multiplier 2
        const V t532 = t486 + t476;
        const V t533 = t532 + t466;
        const V t534 = t533 - t321;
        const V t535 = c[1] * t486;
        const V t536 = c[2] * t476;
        const V t537 = t535 - t536;
        const V t538 = c[0] * t466;
        const V t539 = t537 - t538;
        const V t540 = t539 - t321;
        const V t541 = c[4] * t489;
        const V t542 = c[5] * t479;
        const V t543 = t541 + t542;
        const V t544 = c[3] * t469;
        const V t545 = t543 + t544;
        const V t546 = t540 + t545;
        const V t547 = t540 - t545;
        const V t548 = c[2] * t486;
        const V t549 = t321 + t548;
        const V t550 = c[0] * t476;
        const V t551 = t549 + t550;
        const V t552 = c[1] * t466;
        const V t553 = t552 - t551;
        const V t554 = c[5] * t489;
        const V t555 = c[3] * t479;
        const V t556 = t555 - t554;
        const V t557 = c[4] * t469;
        const V t558 = t556 + t557;
        const V t559 = t553 - t558;
        const V t560 = t553 + t558;
        const V t561 = c[0] * t486;
        const V t562 = t321 + t561;
        const V t563 = c[1] * t476;
        const V t564 = t563 - t562;
        const V t565 = c[2] * t466;
        const V t566 = t564 - t565;
        const V t567 = c[3] * t489;
        const V t568 = c[4] * t479;
        const V t569 = t568 - t567;
        const V t570 = c[5] * t469;
        const V t571 = t569 - t570;
        const V t572 = t566 - t571;
        const V t573 = t566 + t571;
        // real block of 7, multiplier 4
        const V t574 = t55 - t25;
        const V t575 = t25 + t55;
        const V t576 = t23 - t47;
        const V t577 = t23 + t47;
        const V t578 = t21 + t19;
        const V t579 = t19 - t21;
        const V t580 = t574 + t576;
        const V t581 = t580 - t578;
        const V t582 = t581 - t3;
        const V t583 = c[0] * t574;
        const V t584 = t3 + t583;
        const V t585 = c[1] * t576;
        const V t586 = t585 - t584;
        const V t587 = c[2] * t578;
        const V t588 = t586 + t587;
        const V t589 = c[3] * t575;
        const V t590 = c[4] * t577;
        const V t591 = c[5] * t579;
        const V t592 = t590 - t589;
        const V t593 = t592 - t591;
        const V t594 = c[1] * t574;
        const V t595 = c[2] * t576;
        const V t596 = t594 - t595;
        const V t597 = c[0] * t578;
        const V t598 = t596 + t597;
        const V t599 = t598 - t3;
        const V t600 = c[4] * t575;
        const V t601 = c[5] * t577;
        const V t602 = c[3] * t579;
        const V t603 = t600 + t601;
        const V t604 = t603 + t602;
        const V t605 = c[2] * t574;
        const V t606 = t3 + t605;
        const V t607 = c[0] * t576;
        const V t608 = t606 + t607;
        const V t609 = c[1] * t578;
        const V t610 = t608 + t609;
        const V t611 = c[5] * t575;
        const V t612 = c[3] * t577;
        const V t613 = c[4] * t579;
        const V t614 = t612 + t613;
        const V t615 = t614 - t611;
        // real block of 7, multiplier 4
        const V t616 = t13 + t39;
        const V t617 = t13 - t39;
        const V t618 = t29 - t45;
        const V t619 = t45 + t29;
        const V t620 = t41 + t43;
        const V t621 = t41 - t43;
        const V t622 = t616 + t618;
        const V t623 = t622 + t620;
        const V t624 = t623 + t49;
        const V t625 = c[0] * t616;
        const V t626 = t49 - t625;
        const V t627 = c[1] * t618;
        const V t628 = t626 + t627;
        const V t629 = c[2] * t620;
        const V t630 = t628 - t629;
        const V t631 = c[3] * t617;
        const V t632 = c[4] * t619;
        const V t633 = c[5] * t621;
        const V t634 = t631 - t632;
        const V t635 = t634 - t633;
        const V t636 = c[1] * t616;
        const V t637 = c[2] * t618;
        const V t638 = t636 - t637;
        const V t639 = c[0] * t620;
        const V t640 = t638 - t639;
        const V t641 = t640 + t49;
        const V t642 = c[4] * t617;
        const V t643 = c[5] * t619;
        const V t644 = c[3] * t621;
        const V t645 = t644 - t642;
        const V t646 = t645 - t643;
        const V t647 = c[2] * t616;
        const V t648 = t49 - t647;
        const V t649 = c[0] * t618;
        const V t650 = t648 - t649;
        const V t651 = c[1] * t620;
        const V t652 = t650 + t651;
        const V t653 = c[5] * t617;
        const V t654 = c[3] * t619;
        const V t655 = c[4] * t621;
        const V t656 = t653 + t655;
        const V t657 = t656 - t654;
        // real block of 7, multiplier 4
        const V t658 = t17 + t37;
        const V t659 = t17 - t37;
        const V t660 = t9 + t53;
        const V t661 = t9 - t53;
        const V t662 = t31 - t11;
        const V t663 = t31 + t11;
        const V t664 = t658 + t660;
        const V t665 = t664 + t662;
        const V t666 = t665 + t57;
        const V t667 = c[0] * t658;
        const V t668 = t57 - t667;
        const V t669 = c[1] * t660;
        const V t670 = t668 + t669;
        const V t671 = c[2] * t662;
        const V t672 = t670 - t671;
        const V t673 = c[3] * t659;
        const V t674 = c[4] * t661;
        const V t675 = c[5] * t663;
        const V t676 = t673 + t674;
        const V t677 = t676 - t675;
        const V t678 = c[1] * t658;
        const V t679 = c[2] * t660;
        const V t680 = t678 - t679;
        const V t681 = c[0] * t662;
        const V t682 = t680 - t681;
        const V t683 = t682 + t57;
        const V t684 = c[4] * t659;
        const V t685 = c[5] * t661;
        const V t686 = c[3] * t663;
        const V t687 = t685 + t686;
        const V t688 = t687 - t684;
        const V t689 = c[2] * t658;
        const V t690 = t57 - t689;
        const V t691 = c[0] * t660;
        const V t692 = t690 - t691;
        const V t693 = c[1] * t662;
        const V t694 = t692 + t693;
        const V t695 = c[5] * t659;
        const V t696 = c[3] * t661;
        const V t697 = c[4] * t663;
        const V t698 = t695 + t696;
        const V t699 = t698 + t697;
        // real block of 7, multiplier 4
        const V t700 = t33 + t5;
        const V t701 = t33 - t5;
        const V t702 = t7 - t35;
        const V t703 = t35 + t7;
        const V t704 = t27 + t15;
        const V t705 = t15 - t27;
        const V t706 = t700 + t702;
        const V t707 = t706 - t704;
        const V t708 = t707 + t51;
        const V t709 = c[0] * t700;
        const V t710 = t51 - t709;
        const V t711 = c[1] * t702;
        const V t712 = t710 + t711;
        const V t713 = c[2] * t704;
        const V t714 = t712 + t713;
        const V t715 = c[3] * t701;
        const V t716 = c[4] * t703;
        const V t717 = c[5] * t705;
        const V t718 = t715 - t716;
        const V t719 = t718 - t717;
        const V t720 = c[1] * t700;
        const V t721 = c[2] * t702;
        const V t722 = t720 - t721;
        const V t723 = c[0] * t704;
        const V t724 = t722 + t723;
        const V t725 = t724 + t51;
        const V t726 = c[4] * t701;
        const V t727 = c[5] * t703;
        const V t728 = c[3] * t705;
        const V t729 = t728 - t726;
        const V t730 = t729 - t727;
        const V t731 = c[2] * t700;
        const V t732 = t51 - t731;
        const V t733 = c[0] * t702;
        const V t734 = t732 - t733;
        const V t735 = c[1] * t704;
        const V t736 = t734 - t735;
        const V t737 = c[5] * t701;
        const V t738 = c[3] * t703;
        const V t739 = c[4] * t705;
        const V t740 = t737 + t739;
        const V t741 = t740 - t738;
        // real block of 2
        const V t742 = t582 + t666;
        const V t743 = t582 - t666;
        // real block of 2
        const V t744 = t624 + t708;
        const V t745 = t624 - t708;
        // real block of 2
        const V t746 = t742 + t744;
        const V t747 = t742 - t744;
        // complex block of 2
        const V t748 = t588 + t672;
        const V t749 = t593 + t677;
        const V t750 = t588 - t672;
        const V t751 = t593 - t677;
        // complex block of 2
        const V t752 = t630 + t714;
        const V t753 = t635 + t719;
        const V t754 = t630 - t714;
        const V t755 = t635 - t719;
        // complex block of 2
        const V t756 = t748 + t752;
        const V t757 = t749 + t753;
        const V t758 = t748 - t752;
        const V t759 = t749 - t753;
        // complex block of 2
        const V t760 = t750 - t755;
        const V t761 = t751 + t754;
        const V t762 = t750 + t755;
        const V t763 = t751 - t754;
        // complex block of 2
        const V t764 = t599 + t683;
        const V t765 = t604 + t688;
        const V t766 = t599 - t683;
        const V t767 = t604 - t688;
        // complex block of 2
        const V t768 = t641 + t725;
        const V t769 = t646 + t730;
        const V t770 = t641 - t725;
        const V t771 = t646 - t730;
        // complex block of 2
        const V t772 = t764 + t768;
        const V t773 = t765 + t769;
        const V t774 = t764 - t768;
        const V t775 = t765 - t769;
        // complex block of 2
        const V t776 = t766 - t771;
        const V t777 = t767 + t770;
        const V t778 = t766 + t771;
        const V t779 = t767 - t770;
        // complex block of 2
        const V t780 = t694 - t610;
        const V t781 = t615 + t699;
        const V t782 = t610 + t694;
        const V t783 = t615 - t699;
        // complex block of 2
        const V t784 = t652 + t736;
        const V t785 = t657 + t741;
        const V t786 = t652 - t736;
        const V t787 = t657 - t741;
        // complex block of 2
        const V t788 = t780 + t784;
        const V t789 = t781 + t785;
        const V t790 = t780 - t784;
        const V t791 = t781 - t785;
        // complex block of 2
        const V t792 = t782 + t787;
        const V t793 = t783 + t786;
        const V t794 = t787 - t782;
        const V t795 = t783 - t786;
        // real block of 29
        const V t796 = t1 + t746;
        const V t797 = c[8] * t746;
        const V t798 = t1 - t797;
        const V t799 = c[9] * t779;
        const V t800 = c[10] * t778;
        const V t801 = t800 + t799;
        const V t802 = c[9] * t778;
        const V t803 = c[10] * t779;
        const V t804 = t803 - t802;
        const V t805 = c[11] * t791;
        const V t806 = c[12] * t790;
        const V t807 = t806 + t805;
        const V t808 = c[11] * t790;
        const V t809 = c[12] * t791;
        const V t810 = t808 - t809;
        const V t811 = c[13] * t763;
        const V t812 = c[14] * t762;
        const V t813 = t812 + t811;
        const V t814 = c[13] * t762;
        const V t815 = c[14] * t763;
        const V t816 = t814 - t815;
        const V t817 = c[15] * t757;
        const V t818 = c[16] * t756;
        const V t819 = t818 - t817;
        const V t820 = c[15] * t756;
        const V t821 = c[16] * t757;
        const V t822 = t821 + t820;
        const V t823 = c[17] * t795;
        const V t824 = c[18] * t794;
        const V t825 = t824 + t823;
        const V t826 = c[17] * t794;
        const V t827 = c[18] * t795;
        const V t828 = t827 - t826;
        const V t829 = c[19] * t775;
        const V t830 = c[20] * t774;
        const V t831 = t830 + t829;
        const V t832 = c[19] * t774;
        const V t833 = c[20] * t775;
        const V t834 = t832 - t833;
        const V t835 = c[6] * t745;
        const V t836 = c[7] * t743;
        const V t837 = t836 + t835;
        const V t838 = c[6] * t743;
        const V t839 = c[7] * t745;
        const V t840 = t838 - t839;
        const V t841 = c[21] * t773;
        const V t842 = c[22] * t772;
        const V t843 = t842 + t841;
        const V t844 = c[21] * t772;
        const V t845 = c[22] * t773;
        const V t846 = t844 - t845;
        const V t847 = c[23] * t793;
        const V t848 = c[24] * t792;
        const V t849 = t848 + t847;
        const V t850 = c[23] * t792;
        const V t851 = c[24] * t793;
        const V t852 = t850 - t851;
        const V t853 = c[25] * t759;
        const V t854 = c[26] * t758;
        const V t855 = t854 - t853;
        const V t856 = c[25] * t758;
        const V t857 = c[26] * t759;
        const V t858 = t857 + t856;
        const V t859 = c[27] * t761;
        const V t860 = c[28] * t760;
        const V t861 = t859 - t860;
        const V t862 = c[27] * t760;
        const V t863 = c[28] * t761;
        const V t864 = t863 + t862;
        const V t865 = c[29] * t789;
        const V t866 = c[30] * t788;
        const V t867 = t866 - t865;
        const V t868 = c[29] * t788;
        const V t869 = c[30] * t789;
        const V t870 = t869 + t868;
        const V t871 = c[31] * t777;
        const V t872 = c[32] * t776;
        const V t873 = t871 - t872;
        const V t874 = c[31] * t776;
        const V t875 = c[32] * t777;
        const V t876 = t875 + t874;
        const V t877 = c[33] * t747;
        // spectrum block of 2
        const V t878 = t798 + t877;
        const V t879 = t798 - t877;
        // complex block of 2
        const V t880 = t822 + t858;
        const V t881 = t819 + t855;
        const V t882 = t822 - t858;
        const V t883 = t819 - t855;
        // complex block of 2
        const V t884 = t846 - t834;
        const V t885 = t831 - t843;
        const V t886 = t846 + t834;
        const V t887 = t843 + t831;
        // complex block of 2
        const V t888 = t870 - t810;
        const V t889 = t867 + t807;
        const V t890 = t870 + t810;
        const V t891 = t867 - t807;
        // spectrum block of 7, multiplier 2
        const V t892 = t881 + t885;
        const V t893 = t892 + t889;
        const V t894 = t893 + t878;
        const V t895 = c[1] * t881;
        const V t896 = c[2] * t885;
        const V t897 = t895 - t896;
        const V t898 = c[0] * t889;
        const V t899 = t897 - t898;
        const V t900 = t899 + t878;
        const V t901 = c[4] * t880;
        const V t902 = c[5] * t884;
        const V t903 = t901 + t902;
        const V t904 = c[3] * t888;
        const V t905 = t903 + t904;
        const V t906 = t900 - t905;
        const V t907 = t900 + t905;
        const V t908 = c[2] * t881;
        const V t909 = t878 - t908;
        const V t910 = c[0] * t885;
        const V t911 = t909 - t910;
        const V t912 = c[1] * t889;
        const V t913 = t911 + t912;
        const V t914 = c[5] * t880;
        const V t915 = c[3] * t884;
        const V t916 = t914 - t915;
        const V t917 = c[4] * t888;
        const V t918 = t916 - t917;
        const V t919 = t913 - t918;
        const V t920 = t913 + t918;
        const V t921 = c[0] * t881;
        const V t922 = t878 - t921;
        const V t923 = c[1] * t885;
        const V t924 = t922 + t923;
        const V t925 = c[2] * t889;
        const V t926 = t924 - t925;
        const V t927 = c[3] * t880;
        const V t928 = c[4] * t884;
        const V t929 = t927 - t928;
        const V t930 = c[5] * t888;
        const V t931 = t929 + t930;
        const V t932 = t926 - t931;
        const V t933 = t926 + t931;
        // spectrum block of 7, multiplier 2
        const V t934 = t883 - t887;
        const V t935 = t934 + t891;
        const V t936 = t935 + t879;
        const V t937 = c[1] * t883;
        const V t938 = c[2] * t887;
        const V t939 = t937 + t938;
        const V t940 = c[0] * t891;
        const V t941 = t939 - t940;
        const V t942 = t941 + t879;
        const V t943 = c[4] * t882;
        const V t944 = c[5] * t886;
        const V t945 = t943 + t944;
        const V t946 = c[3] * t890;
        const V t947 = t945 + t946;
        const V t948 = t942 - t947;
        const V t949 = t942 + t947;
        const V t950 = c[2] * t883;
        const V t951 = t879 - t950;
        const V t952 = c[0] * t887;
        const V t953 = t951 + t952;
        const V t954 = c[1] * t891;
        const V t955 = t953 + t954;
        const V t956 = c[5] * t882;
        const V t957 = c[3] * t886;
        const V t958 = t956 - t957;
        const V t959 = c[4] * t890;
        const V t960 = t958 - t959;
        const V t961 = t955 - t960;
        const V t962 = t955 + t960;
        const V t963 = c[0] * t883;
        const V t964 = t879 - t963;
        const V t965 = c[1] * t887;
        const V t966 = t964 - t965;
        const V t967 = c[2] * t891;
        const V t968 = t966 - t967;
        const V t969 = c[3] * t882;
        const V t970 = c[4] * t886;
        const V t971 = t969 - t970;
        const V t972 = c[5] * t890;
        const V t973 = t971 + t972;
        const V t974 = t968 - t973;
        const V t975 = t968 + t973;
        // complex block of 2
        const V t976 = t873 - t801;
        const V t977 = t804 + t876;
        const V t978 = t801 + t873;
        const V t979 = t804 - t876;
        // mirrored skew block of 14
        const V t980 = c[2] * t978;
        const V t981 = c[5] * t979;
        const V t982 = t981 + t980;
        const V t983 = c[2] * t979;
        const V t984 = c[5] * t978;
        const V t985 = t983 - t984;
        // complex block of 2
        const V t986 = t861 - t813;
        const V t987 = t816 - t864;
        const V t988 = t813 + t861;
        const V t989 = t816 + t864;
        // mirrored skew block of 14
        const V t990 = c[1] * t988;
        const V t991 = c[4] * t989;
        const V t992 = t991 + t990;
        const V t993 = c[1] * t989;
        const V t994 = c[4] * t988;
        const V t995 = t993 - t994;
        // complex block of 2
        const V t996 = t825 + t849;
        const V t997 = t828 + t852;
        const V t998 = t849 - t825;
        const V t999 = t828 - t852;
        // mirrored skew block of 14
        const V t1000 = c[0] * t998;
        const V t1001 = c[3] * t999;
        const V t1002 = t1001 - t1000;
        const V t1003 = c[0] * t999;
        const V t1004 = c[3] * t998;
        const V t1005 = t1004 + t1003;
        // spectrum block of 7, multiplier 2
        const V t1006 = t997 + t987;
        const V t1007 = t1006 + t977;
        const V t1008 = t1007 + t840;
        const V t1009 = c[1] * t997;
        const V t1010 = c[2] * t987;
        const V t1011 = t1009 - t1010;
        const V t1012 = c[0] * t977;
        const V t1013 = t1011 - t1012;
        const V t1014 = t1013 + t840;
        const V t1015 = c[4] * t996;
        const V t1016 = c[5] * t986;
        const V t1017 = t1015 - t1016;
        const V t1018 = c[3] * t976;
        const V t1019 = t1017 - t1018;
        const V t1020 = t1014 - t1019;
        const V t1021 = t1014 + t1019;
        const V t1022 = c[2] * t997;
        const V t1023 = t840 - t1022;
        const V t1024 = c[0] * t987;
        const V t1025 = t1023 - t1024;
        const V t1026 = c[1] * t977;
        const V t1027 = t1025 + t1026;
        const V t1028 = c[5] * t996;
        const V t1029 = c[3] * t986;
        const V t1030 = t1028 + t1029;
        const V t1031 = c[4] * t976;
        const V t1032 = t1030 + t1031;
        const V t1033 = t1027 - t1032;
        const V t1034 = t1027 + t1032;
        const V t1035 = c[0] * t997;
        const V t1036 = t840 - t1035;
        const V t1037 = c[1] * t987;
        const V t1038 = t1036 + t1037;
        const V t1039 = c[2] * t977;
        const V t1040 = t1038 - t1039;
        const V t1041 = c[3] * t996;
        const V t1042 = c[4] * t986;
        const V t1043 = t1041 + t1042;
        const V t1044 = c[5] * t976;
        const V t1045 = t1043 - t1044;
        const V t1046 = t1040 - t1045;
        const V t1047 = t1040 + t1045;
        // spectrum block of 7, multiplier 2
        const V t1048 = t1002 + t992;
        const V t1049 = t1048 + t982;
        const V t1050 = t1049 - t837;
        const V t1051 = c[1] * t1002;
        const V t1052 = c[2] * t992;
        const V t1053 = t1051 - t1052;
        const V t1054 = c[0] * t982;
        const V t1055 = t1053 - t1054;
        const V t1056 = t1055 - t837;
        const V t1057 = c[4] * t1005;
        const V t1058 = c[5] * t995;
        const V t1059 = t1057 + t1058;
        const V t1060 = c[3] * t985;
        const V t1061 = t1059 + t1060;
        const V t1062 = t1056 + t1061;
        const V t1063 = t1056 - t1061;
        const V t1064 = c[2] * t1002;
        const V t1065 = t837 + t1064;
        const V t1066 = c[0] * t992;
        const V t1067 = t1065 + t1066;
        const V t1068 = c[1] * t982;
        const V t1069 = t1068 - t1067;
        const V t1070 = c[5] * t1005;
        const V t1071 = c[3] * t995;
        const V t1072 = t1071 - t1070;
        const V t1073 = c[4] * t985;
        const V t1074 = t1072 + t1073;
        const V t1075 = t1069 - t1074;
        const V t1076 = t1069 + t1074;
        const V t1077 = c[0] * t1002;
        const V t1078 = t837 + t1077;
        const V t1079 = c[1] * t992;
        const V t1080 = t1079 - t1078;
        const V t1081 = c[2] * t982;
        const V t1082 = t1080 - t1081;
        const V t1083 = c[3] * t1005;
        const V t1084 = c[4] * t995;
        const V t1085 = t1084 - t1083;
        const V t1086 = c[5] * t985;
        const V t1087 = t1085 - t1086;
        const V t1088 = t1082 - t1087;
        const V t1089 = t1082 + t1087;
        // spectrum block of 59
        const V t1090 = c[114] * t280;
        const V x0r = io.re(0);
        const V t1091 = x0r - t1090;
        const V t1092 = c[58] * t1050;
        const V t1093 = c[59] * t948;
        const V t1094 = t1093 + t1092;
        const V t1095 = c[58] * t948;
        const V t1096 = c[59] * t1050;
        const V t1097 = t1095 - t1096;
        const V t1098 = c[60] * t492;
        const V t1099 = c[61] * t378;
        const V t1100 = t1099 + t1098;
        const V t1101 = c[60] * t378;
        const V t1102 = c[61] * t492;
        const V t1103 = t1102 - t1101;
        const V t1104 = c[62] * t1034;
        const V t1105 = c[63] * t932;
        const V t1106 = t1104 - t1105;
        const V t1107 = c[62] * t932;
        const V t1108 = c[63] * t1034;
        const V t1109 = t1108 + t1107;
        const V t1110 = c[64] * t547;
        const V t1111 = c[65] * t433;
        const V t1112 = t1110 - t1111;
        const V t1113 = c[64] * t433;
        const V t1114 = c[65] * t547;
        const V t1115 = t1114 + t1113;
        const V t1116 = c[66] * t1088;
        const V t1117 = c[67] * t936;
        const V t1118 = t1117 + t1116;
        const V t1119 = c[66] * t936;
        const V t1120 = c[67] * t1088;
        const V t1121 = t1119 - t1120;
        const V t1122 = c[68] * t573;
        const V t1123 = c[69] * t445;
        const V t1124 = t1123 + t1122;
        const V t1125 = c[68] * t445;
        const V t1126 = c[69] * t573;
        const V t1127 = t1125 - t1126;
        const V t1128 = c[70] * t1062;
        const V t1129 = c[71] * t974;
        const V t1130 = t1128 - t1129;
        const V t1131 = c[70] * t974;
        const V t1132 = c[71] * t1062;
        const V t1133 = t1132 + t1131;
        const V t1134 = c[72] * t505;
        const V t1135 = c[73] * t404;
        const V t1136 = t1135 + t1134;
        const V t1137 = c[72] * t404;
        const V t1138 = c[73] * t505;
        const V t1139 = t1137 - t1138;
        const V t1140 = c[74] * t1075;
        const V t1141 = c[75] * t962;
        const V t1142 = t1140 - t1141;
        const V t1143 = c[74] * t962;
        const V t1144 = c[75] * t1075;
        const V t1145 = t1144 + t1143;
        const V t1146 = c[76] * t530;
        const V t1147 = c[77] * t391;
        const V t1148 = t1147 + t1146;
        const V t1149 = c[76] * t391;
        const V t1150 = c[77] * t530;
        const V t1151 = t1149 - t1150;
        const V t1152 = c[78] * t1033;
        const V t1153 = c[79] * t933;
        const V t1154 = t1153 - t1152;
        const V t1155 = c[78] * t933;
        const V t1156 = c[79] * t1033;
        const V t1157 = t1156 + t1155;
        const V t1158 = c[80] * t531;
        const V t1159 = c[81] * t390;
        const V t1160 = t1158 - t1159;
        const V t1161 = c[80] * t390;
        const V t1162 = c[81] * t531;
        const V t1163 = t1162 + t1161;
        const V t1164 = c[82] * t1076;
        const V t1165 = c[83] * t975;
        const V t1166 = t1165 + t1164;
        const V t1167 = c[82] * t975;
        const V t1168 = c[83] * t1076;
        const V t1169 = t1167 - t1168;
        const V t1170 = c[84] * t504;
        const V t1171 = c[85] * t403;
        const V t1172 = t1171 + t1170;
        const V t1173 = c[84] * t403;
        const V t1174 = c[85] * t504;
        const V t1175 = t1173 - t1174;
        const V t1176 = c[86] * t1020;
        const V t1177 = c[87] * t919;
        const V t1178 = t1176 - t1177;
        const V t1179 = c[86] * t919;
        const V t1180 = c[87] * t1020;
        const V t1181 = t1180 + t1179;
        const V t1182 = c[88] * t560;
        const V t1183 = c[89] * t459;
        const V t1184 = t1183 + t1182;
        const V t1185 = c[88] * t459;
        const V t1186 = c[89] * t560;
        const V t1187 = t1186 - t1185;
        const V t1188 = c[90] * t1047;
        const V t1189 = c[91] * t906;
        const V t1190 = t1189 + t1188;
        const V t1191 = c[90] * t906;
        const V t1192 = c[91] * t1047;
        const V t1193 = t1192 - t1191;
        const V t1194 = c[92] * t517;
        const V t1195 = c[93] * t417;
        const V t1196 = t1195 - t1194;
        const V t1197 = c[92] * t417;
        const V t1198 = c[93] * t517;
        const V t1199 = t1198 + t1197;
        const V t1200 = c[94] * t1046;
        const V t1201 = c[95] * t907;
        const V t1202 = t1200 - t1201;
        const V t1203 = c[94] * t907;
        const V t1204 = c[95] * t1046;
        const V t1205 = t1204 + t1203;
        const V t1206 = c[96] * t559;
        const V t1207 = c[97] * t446;
        const V t1208 = t1207 + t1206;
        const V t1209 = c[96] * t446;
        const V t1210 = c[97] * t559;
        const V t1211 = t1209 - t1210;
        const V t1212 = c[98] * t1021;
        const V t1213 = c[99] * t920;
        const V t1214 = t1213 + t1212;
        const V t1215 = c[98] * t920;
        const V t1216 = c[99] * t1021;
        const V t1217 = t1216 - t1215;
        const V t1218 = c[100] * t546;
        const V t1219 = c[101] * t458;
        const V t1220 = t1219 + t1218;
        const V t1221 = c[100] * t458;
        const V t1222 = c[101] * t546;
        const V t1223 = t1221 - t1222;
        const V t1224 = c[102] * t1089;
        const V t1225 = c[103] * t961;
        const V t1226 = t1225 + t1224;
        const V t1227 = c[102] * t961;
        const V t1228 = c[103] * t1089;
        const V t1229 = t1227 - t1228;
        const V t1230 = c[104] * t572;
        const V t1231 = c[105] * t420;
        const V t1232 = t1230 - t1231;
        const V t1233 = c[104] * t420;
        const V t1234 = c[105] * t572;
        const V t1235 = t1234 + t1233;
        const V t1236 = c[106] * t1063;
        const V t1237 = c[107] * t949;
        const V t1238 = t1237 + t1236;
        const V t1239 = c[106] * t949;
        const V t1240 = c[107] * t1063;
        const V t1241 = t1240 - t1239;
        const V t1242 = c[108] * t518;
        const V t1243 = c[109] * t416;
        const V t1244 = t1243 + t1242;
        const V t1245 = c[108] * t416;
        const V t1246 = c[109] * t518;
        const V t1247 = t1245 - t1246;
        const V t1248 = c[110] * t1008;
        const V t1249 = c[111] * t894;
        const V t1250 = t1248 - t1249;
        const V t1251 = c[110] * t894;
        const V t1252 = c[111] * t1008;
        const V t1253 = t1252 + t1251;
        const V t1254 = c[112] * t534;
        const V t1255 = c[113] * t432;
        const V t1256 = t1255 + t1254;
        const V t1257 = c[112] * t432;
        const V t1258 = c[113] * t534;
        const V t1259 = t1257 - t1258;
        const V t1260 = c[115] * t796;
        // spectrum block of 2
        const V t1261 = t1091 - t1260;
        const V t1262 = t1091 + t1260;
        // complex block of 2
        const V t1263 = t1103 - t1253;
        const V t1264 = t1100 + t1250;
        const V t1265 = t1103 + t1253;
        const V t1266 = t1100 - t1250;
        // complex block of 2
        const V t1267 = t1115 - t1241;
        const V t1268 = t1112 + t1238;
        const V t1269 = t1115 + t1241;
        const V t1270 = t1112 - t1238;
        // complex block of 2
        const V t1271 = t1127 - t1229;
        const V t1272 = t1124 - t1226;
        const V t1273 = t1127 + t1229;
        const V t1274 = t1124 + t1226;
        // complex block of 2
        const V t1275 = t1139 - t1217;
        const V t1276 = t1136 + t1214;
        const V t1277 = t1139 + t1217;
        const V t1278 = t1136 - t1214;
        // complex block of 2
        const V t1279 = t1151 + t1205;
        const V t1280 = t1148 + t1202;
        const V t1281 = t1151 - t1205;
        const V t1282 = t1148 - t1202;
        // complex block of 2
        const V t1283 = t1163 - t1193;
        const V t1284 = t1160 + t1190;
        const V t1285 = t1163 + t1193;
        const V t1286 = t1160 - t1190;
        // complex block of 2
        const V t1287 = t1175 - t1181;
        const V t1288 = t1178 - t1172;
        const V t1289 = t1175 + t1181;
        const V t1290 = t1172 + t1178;
        // complex block of 2
        const V t1291 = t1187 - t1169;
        const V t1292 = t1184 + t1166;
        const V t1293 = t1187 + t1169;
        const V t1294 = t1184 - t1166;
        // complex block of 2
        const V t1295 = t1199 + t1157;
        const V t1296 = t1196 + t1154;
        const V t1297 = t1157 - t1199;
        const V t1298 = t1196 - t1154;
        // complex block of 2
        const V t1299 = t1211 - t1145;
        const V t1300 = t1142 - t1208;
        const V t1301 = t1211 + t1145;
        const V t1302 = t1208 + t1142;
        // complex block of 2
        const V t1303 = t1223 + t1133;
        const V t1304 = t1220 + t1130;
        const V t1305 = t1223 - t1133;
        const V t1306 = t1220 - t1130;
        // complex block of 2
        const V t1307 = t1235 + t1121;
        const V t1308 = t1232 + t1118;
        const V t1309 = t1121 - t1235;
        const V t1310 = t1232 - t1118;
        // complex block of 2
        const V t1311 = t1247 + t1109;
        const V t1312 = t1244 + t1106;
        const V t1313 = t1247 - t1109;
        const V t1314 = t1244 - t1106;
        // complex block of 2
        const V t1315 = t1259 - t1097;
        const V t1316 = t1256 - t1094;
        const V t1317 = t1259 + t1097;
        const V t1318 = t1256 + t1094;
        // real block of 2
        const V t1319 = t1264 + t1308;
        const V t1320 = t1264 - t1308;
        // real block of 2
        const V t1321 = t1276 + t1300;
        const V t1322 = t1276 - t1300;
        // real block of 2
        const V t1323 = t1312 + t1304;
        const V t1324 = t1312 - t1304;
        // real block of 2
        const V t1325 = t1284 + t1316;
        const V t1326 = t1284 - t1316;
        // real block of 2
        const V t1327 = t1280 + t1268;
        const V t1328 = t1280 - t1268;
        // real block of 2
        const V t1329 = t1296 + t1292;
        const V t1330 = t1296 - t1292;
        // real block of 2
        const V t1331 = t1288 + t1272;
        const V t1332 = t1288 - t1272;
        // real block of 7, multiplier 2
        const V t1333 = t1321 + t1331;
        const V t1334 = t1321 - t1331;
        const V t1335 = t1329 + t1323;
        const V t1336 = t1329 - t1323;
        const V t1337 = t1327 + t1325;
        const V t1338 = t1327 - t1325;
        const V t1339 = t1333 + t1335;
        const V t1340 = t1339 + t1337;
        const V t1341 = t1340 + t1319;
        const V t1342 = c[2] * t1333;
        const V t1343 = t1319 - t1342;
        const V t1344 = c[0] * t1335;
        const V t1345 = t1343 - t1344;
        const V t1346 = c[1] * t1337;
        const V t1347 = t1345 + t1346;
        const V t1348 = c[5] * t1334;
        const V t1349 = c[3] * t1336;
        const V t1350 = c[4] * t1338;
        const V t1351 = t1348 + t1349;
        const V t1352 = t1351 + t1350;
        const V t1353 = c[0] * t1333;
        const V t1354 = t1319 - t1353;
        const V t1355 = c[1] * t1335;
        const V t1356 = t1354 + t1355;
        const V t1357 = c[2] * t1337;
        const V t1358 = t1356 - t1357;
        const V t1359 = c[3] * t1334;
        const V t1360 = c[4] * t1336;
        const V t1361 = c[5] * t1338;
        const V t1362 = t1359 + t1360;
        const V t1363 = t1362 - t1361;
        const V t1364 = c[1] * t1333;
        const V t1365 = c[2] * t1335;
        const V t1366 = t1364 - t1365;
        const V t1367 = c[0] * t1337;
        const V t1368 = t1366 - t1367;
        const V t1369 = t1368 + t1319;
        const V t1370 = c[4] * t1334;
        const V t1371 = c[5] * t1336;
        const V t1372 = c[3] * t1338;
        const V t1373 = t1370 - t1371;
        const V t1374 = t1373 - t1372;
        // real block of 7, multiplier 2
        const V t1375 = t1322 + t1332;
        const V t1376 = t1322 - t1332;
        const V t1377 = t1330 + t1324;
        const V t1378 = t1330 - t1324;
        const V t1379 = t1328 + t1326;
        const V t1380 = t1328 - t1326;
        const V t1381 = t1375 + t1377;
        const V t1382 = t1381 + t1379;
        const V t1383 = t1382 + t1320;
        const V t1384 = c[2] * t1375;
        const V t1385 = t1320 - t1384;
        const V t1386 = c[0] * t1377;
        const V t1387 = t1385 - t1386;
        const V t1388 = c[1] * t1379;
        const V t1389 = t1387 + t1388;
        const V t1390 = c[5] * t1376;
        const V t1391 = c[3] * t1378;
        const V t1392 = c[4] * t1380;
        const V t1393 = t1390 + t1391;
        const V t1394 = t1393 + t1392;
        const V t1395 = c[0] * t1375;
        const V t1396 = t1320 - t1395;
        const V t1397 = c[1] * t1377;
        const V t1398 = t1396 + t1397;
        const V t1399 = c[2] * t1379;
        const V t1400 = t1398 - t1399;
        const V t1401 = c[3] * t1376;
        const V t1402 = c[4] * t1378;
        const V t1403 = c[5] * t1380;
        const V t1404 = t1401 + t1402;
        const V t1405 = t1404 - t1403;
        const V t1406 = c[1] * t1375;
        const V t1407 = c[2] * t1377;
        const V t1408 = t1406 - t1407;
        const V t1409 = c[0] * t1379;
        const V t1410 = t1408 - t1409;
        const V t1411 = t1410 + t1320;
        const V t1412 = c[4] * t1376;
        const V t1413 = c[5] * t1378;
        const V t1414 = c[3] * t1380;
        const V t1415 = t1412 - t1413;
        const V t1416 = t1415 - t1414;
        // real block of 7
        const V t1417 = t1287 - t1275;
        const V t1418 = t1275 + t1287;
        const V t1419 = t1295 - t1311;
        const V t1420 = t1295 + t1311;
        const V t1421 = t1279 + t1283;
        const V t1422 = t1283 - t1279;
        const V t1423 = t1417 + t1419;
        const V t1424 = t1423 - t1421;
        const V t1425 = t1424 + t1263;
        const V t1426 = c[1] * t1417;
        const V t1427 = c[2] * t1419;
        const V t1428 = t1426 - t1427;
        const V t1429 = c[0] * t1421;
        const V t1430 = t1428 + t1429;
        const V t1431 = t1430 + t1263;
        const V t1432 = c[4] * t1418;
        const V t1433 = c[5] * t1420;
        const V t1434 = c[3] * t1422;
        const V t1435 = t1432 + t1433;
        const V t1436 = t1435 + t1434;
        const V t1437 = c[2] * t1417;
        const V t1438 = t1263 - t1437;
        const V t1439 = c[0] * t1419;
        const V t1440 = t1438 - t1439;
        const V t1441 = c[1] * t1421;
        const V t1442 = t1440 - t1441;
        const V t1443 = c[5] * t1418;
        const V t1444 = c[3] * t1420;
        const V t1445 = c[4] * t1422;
        const V t1446 = t1443 - t1444;
        const V t1447 = t1446 - t1445;
        const V t1448 = c[0] * t1417;
        const V t1449 = t1263 - t1448;
        const V t1450 = c[1] * t1419;
        const V t1451 = t1449 + t1450;
        const V t1452 = c[2] * t1421;
        const V t1453 = t1451 + t1452;
        const V t1454 = c[3] * t1418;
        const V t1455 = c[4] * t1420;
        const V t1456 = c[5] * t1422;
        const V t1457 = t1454 + t1456;
        const V t1458 = t1457 - t1455;
        // real block of 7
        const V t1459 = t1315 - t1291;
        const V t1460 = t1291 + t1315;
        const V t1461 = t1303 + t1271;
        const V t1462 = t1303 - t1271;
        const V t1463 = t1307 - t1299;
        const V t1464 = t1299 + t1307;
        const V t1465 = t1459 + t1461;
        const V t1466 = t1465 + t1463;
        const V t1467 = t1466 + t1267;
        const V t1468 = c[1] * t1459;
        const V t1469 = c[2] * t1461;
        const V t1470 = t1468 - t1469;
        const V t1471 = c[0] * t1463;
        const V t1472 = t1470 - t1471;
        const V t1473 = t1472 + t1267;
        const V t1474 = c[4] * t1460;
        const V t1475 = c[5] * t1462;
        const V t1476 = c[3] * t1464;
        const V t1477 = t1474 + t1475;
        const V t1478 = t1477 - t1476;
        const V t1479 = c[2] * t1459;
        const V t1480 = t1267 - t1479;
        const V t1481 = c[0] * t1461;
        const V t1482 = t1480 - t1481;
        const V t1483 = c[1] * t1463;
        const V t1484 = t1482 + t1483;
        const V t1485 = c[5] * t1460;
        const V t1486 = c[3] * t1462;
        const V t1487 = c[4] * t1464;
        const V t1488 = t1485 + t1487;
        const V t1489 = t1488 - t1486;
        const V t1490 = c[0] * t1459;
        const V t1491 = t1267 - t1490;
        const V t1492 = c[1] * t1461;
        const V t1493 = t1491 + t1492;
        const V t1494 = c[2] * t1463;
        const V t1495 = t1493 - t1494;
        const V t1496 = c[3] * t1460;
        const V t1497 = c[4] * t1462;
        const V t1498 = c[5] * t1464;
        const V t1499 = t1496 - t1497;
        const V t1500 = t1499 - t1498;
        // skew block of 14
        const V t1501 = c[2] * t1500;
        const V t1502 = c[5] * t1495;
        const V t1503 = t1502 - t1501;
        const V t1504 = c[2] * t1495;
        const V t1505 = c[5] * t1500;
        const V t1506 = t1505 + t1504;
        // complex block of 2
        const V t1507 = t1453 + t1503;
        const V t1508 = t1458 + t1506;
        const V t1509 = t1453 - t1503;
        const V t1510 = t1506 - t1458;
        // skew block of 14
        const V t1511 = c[1] * t1489;
        const V t1512 = c[4] * t1484;
        const V t1513 = t1512 - t1511;
        const V t1514 = c[1] * t1484;
        const V t1515 = c[4] * t1489;
        const V t1516 = t1515 + t1514;
        // complex block of 2
        const V t1517 = t1442 + t1513;
        const V t1518 = t1447 + t1516;
        const V t1519 = t1442 - t1513;
        const V t1520 = t1516 - t1447;
        // skew block of 14
        const V t1521 = c[0] * t1478;
        const V t1522 = c[3] * t1473;
        const V t1523 = t1522 - t1521;
        const V t1524 = c[0] * t1473;
        const V t1525 = c[3] * t1478;
        const V t1526 = t1525 + t1524;
        // complex block of 2
        const V t1527 = t1431 + t1523;
        const V t1528 = t1436 + t1526;
        const V t1529 = t1431 - t1523;
        const V t1530 = t1526 - t1436;
        // spectrum block of 29, multiplier 2
        const V t1531 = c[8] * t1341;
        const V t1532 = t1261 - t1531;
        const V t1533 = c[34] * t1508;
        const V t1534 = c[35] * t1507;
        const V t1535 = t1534 + t1533;
        const V t1536 = c[34] * t1507;
        const V t1537 = c[35] * t1508;
        const V t1538 = t1537 - t1536;
        const V t1539 = c[36] * t1416;
        const V t1540 = c[37] * t1411;
        const V t1541 = t1540 + t1539;
        const V t1542 = c[36] * t1411;
        const V t1543 = c[37] * t1416;
        const V t1544 = t1542 - t1543;
        const V t1545 = c[38] * t1518;
        const V t1546 = c[39] * t1517;
        const V t1547 = t1546 - t1545;
        const V t1548 = c[38] * t1517;
        const V t1549 = c[39] * t1518;
        const V t1550 = t1549 + t1548;
        const V t1551 = c[40] * t1352;
        const V t1552 = c[41] * t1347;
        const V t1553 = t1552 - t1551;
        const V t1554 = c[40] * t1347;
        const V t1555 = c[41] * t1352;
        const V t1556 = t1555 + t1554;
        const V t1557 = c[42] * t1528;
        const V t1558 = c[43] * t1527;
        const V t1559 = t1557 - t1558;
        const V t1560 = c[42] * t1527;
        const V t1561 = c[43] * t1528;
        const V t1562 = t1561 + t1560;
        const V t1563 = c[44] * t1405;
        const V t1564 = c[45] * t1400;
        const V t1565 = t1564 - t1563;
        const V t1566 = c[44] * t1400;
        const V t1567 = c[45] * t1405;
        const V t1568 = t1567 + t1566;
        const V t1569 = c[6] * t1467;
        const V t1570 = c[7] * t1425;
        const V t1571 = t1570 - t1569;
        const V t1572 = c[6] * t1425;
        const V t1573 = c[7] * t1467;
        const V t1574 = t1573 + t1572;
        const V t1575 = c[46] * t1363;
        const V t1576 = c[47] * t1358;
        const V t1577 = t1576 - t1575;
        const V t1578 = c[46] * t1358;
        const V t1579 = c[47] * t1363;
        const V t1580 = t1579 + t1578;
        const V t1581 = c[48] * t1530;
        const V t1582 = c[49] * t1529;
        const V t1583 = t1582 + t1581;
        const V t1584 = c[48] * t1529;
        const V t1585 = c[49] * t1530;
        const V t1586 = t1584 - t1585;
        const V t1587 = c[50] * t1394;
        const V t1588 = c[51] * t1389;
        const V t1589 = t1587 - t1588;
        const V t1590 = c[50] * t1389;
        const V t1591 = c[51] * t1394;
        const V t1592 = t1591 + t1590;
        const V t1593 = c[52] * t1520;
        const V t1594 = c[53] * t1519;
        const V t1595 = t1594 - t1593;
        const V t1596 = c[52] * t1519;
        const V t1597 = c[53] * t1520;
        const V t1598 = t1597 + t1596;
        const V t1599 = c[54] * t1374;
        const V t1600 = c[55] * t1369;
        const V t1601 = t1600 + t1599;
        const V t1602 = c[54] * t1369;
        const V t1603 = c[55] * t1374;
        const V t1604 = t1603 - t1602;
        const V t1605 = c[56] * t1510;
        const V t1606 = c[57] * t1509;
        const V t1607 = t1606 + t1605;
        const V t1608 = c[56] * t1509;
        const V t1609 = c[57] * t1510;
        const V t1610 = t1609 - t1608;
        const V t1611 = c[33] * t1383;
        // spectrum block of 7, multiplier 4
        const V t1612 = t1553 + t1577;
        const V t1613 = t1612 + t1601;
        const V t1614 = t1613 + t1532;
        const V t1615 = c[1] * t1553;
        const V t1616 = c[2] * t1577;
        const V t1617 = t1615 - t1616;
        const V t1618 = c[0] * t1601;
        const V t1619 = t1617 - t1618;
        const V t1620 = t1619 + t1532;
        const V t1621 = c[4] * t1556;
        const V t1622 = c[5] * t1580;
        const V t1623 = t1622 - t1621;
        const V t1624 = c[3] * t1604;
        const V t1625 = t1623 + t1624;
        const V t1626 = t1620 - t1625;
        const V t1627 = t1620 + t1625;
        const V t1628 = c[2] * t1553;
        const V t1629 = t1532 - t1628;
        const V t1630 = c[0] * t1577;
        const V t1631 = t1629 - t1630;
        const V t1632 = c[1] * t1601;
        const V t1633 = t1631 + t1632;
        const V t1634 = c[5] * t1556;
        const V t1635 = c[3] * t1580;
        const V t1636 = t1634 + t1635;
        const V t1637 = c[4] * t1604;
        const V t1638 = t1636 + t1637;
        const V t1639 = t1633 + t1638;
        const V t1640 = t1633 - t1638;
        const V t1641 = c[0] * t1553;
        const V t1642 = t1532 - t1641;
        const V t1643 = c[1] * t1577;
        const V t1644 = t1642 + t1643;
        const V t1645 = c[2] * t1601;
        const V t1646 = t1644 - t1645;
        const V t1647 = c[3] * t1556;
        const V t1648 = c[4] * t1580;
        const V t1649 = t1647 + t1648;
        const V t1650 = c[5] * t1604;
        const V t1651 = t1650 - t1649;
        const V t1652 = t1646 - t1651;
        const V t1653 = t1646 + t1651;
        // complex block of 7, multiplier 4
        const V t1654 = t1598 + t1550;
        const V t1655 = t1595 + t1547;
        const V t1656 = t1550 - t1598;
        const V t1657 = t1595 - t1547;
        const V t1658 = t1538 + t1610;
        const V t1659 = t1535 + t1607;
        const V t1660 = t1610 - t1538;
        const V t1661 = t1607 - t1535;
        const V t1662 = t1562 + t1586;
        const V t1663 = t1559 + t1583;
        const V t1664 = t1586 - t1562;
        const V t1665 = t1559 - t1583;
        const V t1666 = t1654 + t1658;
        const V t1667 = t1666 + t1662;
        const V t1668 = t1655 - t1659;
        const V t1669 = t1668 + t1663;
        const V t1670 = t1667 + t1574;
        const V t1671 = t1669 + t1571;
        const V t1672 = c[1] * t1654;
        const V t1673 = t1574 + t1672;
        const V t1674 = c[2] * t1658;
        const V t1675 = t1674 - t1673;
        const V t1676 = c[0] * t1662;
        const V t1677 = t1675 + t1676;
        const V t1678 = c[1] * t1655;
        const V t1679 = c[2] * t1659;
        const V t1680 = t1678 + t1679;
        const V t1681 = c[0] * t1663;
        const V t1682 = t1680 - t1681;
        const V t1683 = t1682 + t1571;
        const V t1684 = c[4] * t1656;
        const V t1685 = c[5] * t1660;
        const V t1686 = t1684 - t1685;
        const V t1687 = c[3] * t1664;
        const V t1688 = t1686 - t1687;
        const V t1689 = c[4] * t1657;
        const V t1690 = c[5] * t1661;
        const V t1691 = t1689 - t1690;
        const V t1692 = c[3] * t1665;
        const V t1693 = t1691 - t1692;
        const V t1694 = t1677 + t1693;
        const V t1695 = t1683 - t1688;
        const V t1696 = t1677 - t1693;
        const V t1697 = t1683 + t1688;
        const V t1698 = c[2] * t1654;
        const V t1699 = c[0] * t1658;
        const V t1700 = t1698 + t1699;
        const V t1701 = c[1] * t1662;
        const V t1702 = t1700 - t1701;
        const V t1703 = t1702 - t1574;
        const V t1704 = c[2] * t1655;
        const V t1705 = t1571 - t1704;
        const V t1706 = c[0] * t1659;
        const V t1707 = t1705 + t1706;
        const V t1708 = c[1] * t1663;
        const V t1709 = t1707 + t1708;
        const V t1710 = c[5] * t1656;
        const V t1711 = c[3] * t1660;
        const V t1712 = t1710 + t1711;
        const V t1713 = c[4] * t1664;
        const V t1714 = t1712 + t1713;
        const V t1715 = c[5] * t1657;
        const V t1716 = c[3] * t1661;
        const V t1717 = t1715 + t1716;
        const V t1718 = c[4] * t1665;
        const V t1719 = t1717 + t1718;
        const V t1720 = t1703 + t1719;
        const V t1721 = t1709 - t1714;
        const V t1722 = t1703 - t1719;
        const V t1723 = t1709 + t1714;
        const V t1724 = c[0] * t1654;
        const V t1725 = c[1] * t1658;
        const V t1726 = t1724 - t1725;
        const V t1727 = c[2] * t1662;
        const V t1728 = t1726 + t1727;
        const V t1729 = t1728 - t1574;
        const V t1730 = c[0] * t1655;
        const V t1731 = t1571 - t1730;
        const V t1732 = c[1] * t1659;
        const V t1733 = t1731 - t1732;
        const V t1734 = c[2] * t1663;
        const V t1735 = t1733 - t1734;
        const V t1736 = c[3] * t1656;
        const V t1737 = c[4] * t1660;
        const V t1738 = t1736 + t1737;
        const V t1739 = c[5] * t1664;
        const V t1740 = t1738 - t1739;
        const V t1741 = c[3] * t1657;
        const V t1742 = c[4] * t1661;
        const V t1743 = t1741 + t1742;
        const V t1744 = c[5] * t1665;
        const V t1745 = t1743 - t1744;
        const V t1746 = t1729 + t1745;
        const V t1747 = t1735 - t1740;
        const V t1748 = t1729 - t1745;
        const V t1749 = t1735 + t1740;
        // spectrum block of 7, multiplier 4
        const V t1750 = t1589 + t1565;
        const V t1751 = t1750 + t1541;
        const V t1752 = t1751 - t1611;
        const V t1753 = c[1] * t1589;
        const V t1754 = c[2] * t1565;
        const V t1755 = t1753 - t1754;
        const V t1756 = c[0] * t1541;
        const V t1757 = t1755 - t1756;
        const V t1758 = t1757 - t1611;
        const V t1759 = c[4] * t1592;
        const V t1760 = c[5] * t1568;
        const V t1761 = t1759 + t1760;
        const V t1762 = c[3] * t1544;
        const V t1763 = t1761 - t1762;
        const V t1764 = t1758 - t1763;
        const V t1765 = t1758 + t1763;
        const V t1766 = c[2] * t1589;
        const V t1767 = t1611 + t1766;
        const V t1768 = c[0] * t1565;
        const V t1769 = t1767 + t1768;
        const V t1770 = c[1] * t1541;
        const V t1771 = t1770 - t1769;
        const V t1772 = c[5] * t1592;
        const V t1773 = c[3] * t1568;
        const V t1774 = t1772 - t1773;
        const V t1775 = c[4] * t1544;
        const V t1776 = t1774 + t1775;
        const V t1777 = t1771 - t1776;
        const V t1778 = t1771 + t1776;
        const V t1779 = c[0] * t1589;
        const V t1780 = t1611 + t1779;
        const V t1781 = c[1] * t1565;
        const V t1782 = t1781 - t1780;
        const V t1783 = c[2] * t1541;
        const V t1784 = t1782 - t1783;
        const V t1785 = c[3] * t1592;
        const V t1786 = c[4] * t1568;
        const V t1787 = t1785 - t1786;
        const V t1788 = c[5] * t1544;
        const V t1789 = t1787 - t1788;
        const V t1790 = t1784 - t1789;
        const V t1791 = t1784 + t1789;
        // spectrum block of 2
        const V t1792 = t1614 + t1752;
        const V t1793 = t1614 - t1752;
        // spectrum block of 2
        const V t1794 = t1792 + t1671;
        io.out(15, t1794);
        const V t1795 = t1792 - t1671;
        io.out(4, t1795);
        // spectrum block of 2
        const V t1796 = t1793 - t1670;
        io.out(35, t1796);
        const V t1797 = t1793 + t1670;
        io.out(27, t1797);
        // spectrum block of 2
        const V t1798 = t1653 + t1791;
        const V t1799 = t1653 - t1791;
        // spectrum block of 2
        const V t1800 = t1798 + t1749;
        io.out(7, t1800);
        const V t1801 = t1798 - t1749;
        io.out(17, t1801);
        // spectrum block of 2
        const V t1802 = t1799 + t1748;
        io.out(46, t1802);
        const V t1803 = t1799 - t1748;
        io.out(9, t1803);
        // spectrum block of 2
        const V t1804 = t1626 + t1764;
        const V t1805 = t1626 - t1764;
        // spectrum block of 2
        const V t1806 = t1804 + t1695;
        io.out(25, t1806);
        const V t1807 = t1804 - t1695;
        io.out(26, t1807);
        // spectrum block of 2
        const V t1808 = t1805 + t1694;
        io.out(57, t1808);
        const V t1809 = t1805 - t1694;
        io.out(29, t1809);
        // spectrum block of 2
        const V t1810 = t1640 + t1778;
        const V t1811 = t1640 - t1778;
        // spectrum block of 2
        const V t1812 = t1810 + t1723;
        io.out(20, t1812);
        const V t1813 = t1810 - t1723;
        io.out(3, t1813);
        // spectrum block of 2
        const V t1814 = t1811 + t1722;
        io.out(28, t1814);
        const V t1815 = t1811 - t1722;
        io.out(19, t1815);
        // spectrum block of 2
        const V t1816 = t1639 + t1777;
        const V t1817 = t1639 - t1777;
        // spectrum block of 2
        const V t1818 = t1816 + t1721;
        io.out(36, t1818);
        const V t1819 = t1816 - t1721;
        io.out(41, t1819);
        // spectrum block of 2
        const V t1820 = t1817 + t1720;
        io.out(12, t1820);
        const V t1821 = t1817 - t1720;
        io.out(5, t1821);
        // spectrum block of 2
        const V t1822 = t1627 + t1765;
        const V t1823 = t1627 - t1765;
        // spectrum block of 2
        const V t1824 = t1822 + t1697;
        io.out(21, t1824);
        const V t1825 = t1822 - t1697;
        io.out(45, t1825);
        // spectrum block of 2
        const V t1826 = t1823 + t1696;
        io.out(48, t1826);
        const V t1827 = t1823 - t1696;
        io.out(16, t1827);
        // spectrum block of 2
        const V t1828 = t1652 + t1790;
        const V t1829 = t1652 - t1790;
        // spectrum block of 2
        const V t1830 = t1828 + t1747;
        io.out(22, t1830);
        const V t1831 = t1828 - t1747;
        io.out(51, t1831);
        // spectrum block of 2
        const V t1832 = t1829 + t1746;
        io.out(49, t1832);
        const V t1833 = t1829 - t1746;
        io.out(53, t1833);
        // spectrum block of 29, multiplier 2
        const V t1834 = t1261 + t1341;
        io.out(1, t1834);
        // real block of 2
        const V t1835 = t1266 + t1310;
        const V t1836 = t1266 - t1310;
        // real block of 2
        const V t1837 = t1278 - t1302;
        const V t1838 = t1278 + t1302;
        // real block of 2
        const V t1839 = t1314 + t1306;
        const V t1840 = t1314 - t1306;
        // real block of 2
        const V t1841 = t1286 + t1318;
        const V t1842 = t1286 - t1318;
        // real block of 2
        const V t1843 = t1282 + t1270;
        const V t1844 = t1282 - t1270;
        // real block of 2
        const V t1845 = t1298 + t1294;
        const V t1846 = t1298 - t1294;
        // real block of 2
        const V t1847 = t1274 - t1290;
        const V t1848 = t1290 + t1274;
        // real block of 7, multiplier 2
        const V t1849 = t1837 + t1847;
        const V t1850 = t1837 - t1847;
        const V t1851 = t1845 + t1839;
        const V t1852 = t1845 - t1839;
        const V t1853 = t1843 + t1841;
        const V t1854 = t1843 - t1841;
        const V t1855 = t1849 + t1851;
        const V t1856 = t1855 + t1853;
        const V t1857 = t1856 + t1835;
        const V t1858 = c[2] * t1849;
        const V t1859 = t1835 - t1858;
        const V t1860 = c[0] * t1851;
        const V t1861 = t1859 - t1860;
        const V t1862 = c[1] * t1853;
        const V t1863 = t1861 + t1862;
        const V t1864 = c[5] * t1850;
        const V t1865 = c[3] * t1852;
        const V t1866 = c[4] * t1854;
        const V t1867 = t1864 + t1865;
        const V t1868 = t1867 + t1866;
        const V t1869 = c[0] * t1849;
        const V t1870 = t1835 - t1869;
        const V t1871 = c[1] * t1851;
        const V t1872 = t1870 + t1871;
        const V t1873 = c[2] * t1853;
        const V t1874 = t1872 - t1873;
        const V t1875 = c[3] * t1850;
        const V t1876 = c[4] * t1852;
        const V t1877 = c[5] * t1854;
        const V t1878 = t1875 + t1876;
        const V t1879 = t1878 - t1877;
        const V t1880 = c[1] * t1849;
        const V t1881 = c[2] * t1851;
        const V t1882 = t1880 - t1881;
        const V t1883 = c[0] * t1853;
        const V t1884 = t1882 - t1883;
        const V t1885 = t1884 + t1835;
        const V t1886 = c[4] * t1850;
        const V t1887 = c[5] * t1852;
        const V t1888 = c[3] * t1854;
        const V t1889 = t1886 - t1887;
        const V t1890 = t1889 - t1888;
        // real block of 7, multiplier 2
        const V t1891 = t1838 - t1848;
        const V t1892 = t1838 + t1848;
        const V t1893 = t1846 + t1840;
        const V t1894 = t1846 - t1840;
        const V t1895 = t1844 + t1842;
        const V t1896 = t1844 - t1842;
        const V t1897 = t1891 + t1893;
        const V t1898 = t1897 + t1895;
        const V t1899 = t1898 + t1836;
        const V t1900 = c[2] * t1891;
        const V t1901 = t1836 - t1900;
        const V t1902 = c[0] * t1893;
        const V t1903 = t1901 - t1902;
        const V t1904 = c[1] * t1895;
        const V t1905 = t1903 + t1904;
        const V t1906 = c[5] * t1892;
        const V t1907 = c[3] * t1894;
        const V t1908 = c[4] * t1896;
        const V t1909 = t1906 + t1907;
        const V t1910 = t1909 + t1908;
        const V t1911 = c[0] * t1891;
        const V t1912 = t1836 - t1911;
        const V t1913 = c[1] * t1893;
        const V t1914 = t1912 + t1913;
        const V t1915 = c[2] * t1895;
        const V t1916 = t1914 - t1915;
        const V t1917 = c[3] * t1892;
        const V t1918 = c[4] * t1894;
        const V t1919 = c[5] * t1896;
        const V t1920 = t1917 + t1918;
        const V t1921 = t1920 - t1919;
        const V t1922 = c[1] * t1891;
        const V t1923 = c[2] * t1893;
        const V t1924 = t1922 - t1923;
        const V t1925 = c[0] * t1895;
        const V t1926 = t1924 - t1925;
        const V t1927 = t1926 + t1836;
        const V t1928 = c[4] * t1892;
        const V t1929 = c[5] * t1894;
        const V t1930 = c[3] * t1896;
        const V t1931 = t1928 - t1929;
        const V t1932 = t1931 - t1930;
        // real block of 7
        const V t1933 = t1289 - t1277;
        const V t1934 = t1277 + t1289;
        const V t1935 = t1297 + t1313;
        const V t1936 = t1313 - t1297;
        const V t1937 = t1281 + t1285;
        const V t1938 = t1285 - t1281;
        const V t1939 = t1933 - t1935;
        const V t1940 = t1939 - t1937;
        const V t1941 = t1940 + t1265;
        const V t1942 = c[1] * t1933;
        const V t1943 = c[2] * t1935;
        const V t1944 = t1942 + t1943;
        const V t1945 = c[0] * t1937;
        const V t1946 = t1944 + t1945;
        const V t1947 = t1946 + t1265;
        const V t1948 = c[4] * t1934;
        const V t1949 = c[5] * t1936;
        const V t1950 = c[3] * t1938;
        const V t1951 = t1948 + t1949;
        const V t1952 = t1951 + t1950;
        const V t1953 = c[2] * t1933;
        const V t1954 = t1265 - t1953;
        const V t1955 = c[0] * t1935;
        const V t1956 = t1954 + t1955;
        const V t1957 = c[1] * t1937;
        const V t1958 = t1956 - t1957;
        const V t1959 = c[5] * t1934;
        const V t1960 = c[3] * t1936;
        const V t1961 = c[4] * t1938;
        const V t1962 = t1959 - t1960;
        const V t1963 = t1962 - t1961;
        const V t1964 = c[0] * t1933;
        const V t1965 = t1265 - t1964;
        const V t1966 = c[1] * t1935;
        const V t1967 = t1965 - t1966;
        const V t1968 = c[2] * t1937;
        const V t1969 = t1967 + t1968;
        const V t1970 = c[3] * t1934;
        const V t1971 = c[4] * t1936;
        const V t1972 = c[5] * t1938;
        const V t1973 = t1970 + t1972;
        const V t1974 = t1973 - t1971;
        // real block of 7
        const V t1975 = t1317 - t1293;
        const V t1976 = t1293 + t1317;
        const V t1977 = t1305 + t1273;
        const V t1978 = t1305 - t1273;
        const V t1979 = t1301 + t1309;
        const V t1980 = t1309 - t1301;
        const V t1981 = t1975 + t1977;
        const V t1982 = t1981 - t1979;
        const V t1983 = t1982 + t1269;
        const V t1984 = c[1] * t1975;
        const V t1985 = c[2] * t1977;
        const V t1986 = t1984 - t1985;
        const V t1987 = c[0] * t1979;
        const V t1988 = t1986 + t1987;
        const V t1989 = t1988 + t1269;
        const V t1990 = c[4] * t1976;
        const V t1991 = c[5] * t1978;
        const V t1992 = c[3] * t1980;
        const V t1993 = t1990 + t1991;
        const V t1994 = t1993 + t1992;
        const V t1995 = c[2] * t1975;
        const V t1996 = t1269 - t1995;
        const V t1997 = c[0] * t1977;
        const V t1998 = t1996 - t1997;
        const V t1999 = c[1] * t1979;
        const V t2000 = t1998 - t1999;
        const V t2001 = c[5] * t1976;
        const V t2002 = c[3] * t1978;
        const V t2003 = c[4] * t1980;
        const V t2004 = t2001 - t2002;
        const V t2005 = t2004 - t2003;
        const V t2006 = c[0] * t1975;
        const V t2007 = t1269 - t2006;
        const V t2008 = c[1] * t1977;
        const V t2009 = t2007 + t2008;
        const V t2010 = c[2] * t1979;
        const V t2011 = t2009 + t2010;
        const V t2012 = c[3] * t1976;
        const V t2013 = c[4] * t1978;
        const V t2014 = c[5] * t1980;
        const V t2015 = t2012 + t2014;
        const V t2016 = t2015 - t2013;
        // skew block of 14
        const V t2017 = c[2] * t2016;
        const V t2018 = c[5] * t2011;
        const V t2019 = t2018 - t2017;
        const V t2020 = c[2] * t2011;
        const V t2021 = c[5] * t2016;
        const V t2022 = t2021 + t2020;
        // complex block of 2
        const V t2023 = t1969 + t2019;
        const V t2024 = t1974 + t2022;
        const V t2025 = t1969 - t2019;
        const V t2026 = t2022 - t1974;
        // skew block of 14
        const V t2027 = c[1] * t2005;
        const V t2028 = c[4] * t2000;
        const V t2029 = t2028 - t2027;
        const V t2030 = c[1] * t2000;
        const V t2031 = c[4] * t2005;
        const V t2032 = t2031 + t2030;
        // complex block of 2
        const V t2033 = t1958 + t2029;
        const V t2034 = t1963 + t2032;
        const V t2035 = t1958 - t2029;
        const V t2036 = t2032 - t1963;
        // skew block of 14
        const V t2037 = c[0] * t1994;
        const V t2038 = c[3] * t1989;
        const V t2039 = t2038 - t2037;
        const V t2040 = c[0] * t1989;
        const V t2041 = c[3] * t1994;
        const V t2042 = t2041 + t2040;
        // complex block of 2
        const V t2043 = t1947 + t2039;
        const V t2044 = t1952 + t2042;
        const V t2045 = t1947 - t2039;
        const V t2046 = t2042 - t1952;
        // spectrum block of 29, multiplier 2
        const V t2047 = c[8] * t1857;
        const V t2048 = t1262 - t2047;
        const V t2049 = c[34] * t2024;
        const V t2050 = c[35] * t2023;
        const V t2051 = t2050 + t2049;
        const V t2052 = c[34] * t2023;
        const V t2053 = c[35] * t2024;
        const V t2054 = t2053 - t2052;
        const V t2055 = c[36] * t1932;
        const V t2056 = c[37] * t1927;
        const V t2057 = t2056 + t2055;
        const V t2058 = c[36] * t1927;
        const V t2059 = c[37] * t1932;
        const V t2060 = t2058 - t2059;
        const V t2061 = c[38] * t2034;
        const V t2062 = c[39] * t2033;
        const V t2063 = t2062 - t2061;
        const V t2064 = c[38] * t2033;
        const V t2065 = c[39] * t2034;
        const V t2066 = t2065 + t2064;
        const V t2067 = c[40] * t1868;
        const V t2068 = c[41] * t1863;
        const V t2069 = t2068 - t2067;
        const V t2070 = c[40] * t1863;
        const V t2071 = c[41] * t1868;
        const V t2072 = t2071 + t2070;
        const V t2073 = c[42] * t2044;
        const V t2074 = c[43] * t2043;
        const V t2075 = t2073 - t2074;
        const V t2076 = c[42] * t2043;
        const V t2077 = c[43] * t2044;
        const V t2078 = t2077 + t2076;
        const V t2079 = c[44] * t1921;
        const V t2080 = c[45] * t1916;
        const V t2081 = t2080 - t2079;
        const V t2082 = c[44] * t1916;
        const V t2083 = c[45] * t1921;
        const V t2084 = t2083 + t2082;
        const V t2085 = c[6] * t1983;
        const V t2086 = c[7] * t1941;
        const V t2087 = t2086 - t2085;
        const V t2088 = c[6] * t1941;
        const V t2089 = c[7] * t1983;
        const V t2090 = t2089 + t2088;
        const V t2091 = c[46] * t1879;
        const V t2092 = c[47] * t1874;
        const V t2093 = t2092 - t2091;
        const V t2094 = c[46] * t1874;
        const V t2095 = c[47] * t1879;
        const V t2096 = t2095 + t2094;
        const V t2097 = c[48] * t2046;
        const V t2098 = c[49] * t2045;
        const V t2099 = t2098 + t2097;
        const V t2100 = c[48] * t2045;
        const V t2101 = c[49] * t2046;
        const V t2102 = t2100 - t2101;
        const V t2103 = c[50] * t1910;
        const V t2104 = c[51] * t1905;
        const V t2105 = t2103 - t2104;
        const V t2106 = c[50] * t1905;
        const V t2107 = c[51] * t1910;
        const V t2108 = t2107 + t2106;
        const V t2109 = c[52] * t2036;
        const V t2110 = c[53] * t2035;
        const V t2111 = t2110 - t2109;
        const V t2112 = c[52] * t2035;
        const V t2113 = c[53] * t2036;
        const V t2114 = t2113 + t2112;
        const V t2115 = c[54] * t1890;
        const V t2116 = c[55] * t1885;
        const V t2117 = t2116 + t2115;
        const V t2118 = c[54] * t1885;
        const V t2119 = c[55] * t1890;
        const V t2120 = t2119 - t2118;
        const V t2121 = c[56] * t2026;
        const V t2122 = c[57] * t2025;
        const V t2123 = t2122 + t2121;
        const V t2124 = c[56] * t2025;
        const V t2125 = c[57] * t2026;
        const V t2126 = t2125 - t2124;
        const V t2127 = c[33] * t1899;
        // spectrum block of 7, multiplier 4
        const V t2128 = t2069 + t2093;
        const V t2129 = t2128 + t2117;
        const V t2130 = t2129 + t2048;
        const V t2131 = c[1] * t2069;
        const V t2132 = c[2] * t2093;
        const V t2133 = t2131 - t2132;
        const V t2134 = c[0] * t2117;
        const V t2135 = t2133 - t2134;
        const V t2136 = t2135 + t2048;
        const V t2137 = c[4] * t2072;
        const V t2138 = c[5] * t2096;
        const V t2139 = t2138 - t2137;
        const V t2140 = c[3] * t2120;
        const V t2141 = t2139 + t2140;
        const V t2142 = t2136 - t2141;
        const V t2143 = t2136 + t2141;
        const V t2144 = c[2] * t2069;
        const V t2145 = t2048 - t2144;
        const V t2146 = c[0] * t2093;
        const V t2147 = t2145 - t2146;
        const V t2148 = c[1] * t2117;
        const V t2149 = t2147 + t2148;
        const V t2150 = c[5] * t2072;
        const V t2151 = c[3] * t2096;
        const V t2152 = t2150 + t2151;
        const V t2153 = c[4] * t2120;
        const V t2154 = t2152 + t2153;
        const V t2155 = t2149 + t2154;
        const V t2156 = t2149 - t2154;
        const V t2157 = c[0] * t2069;
        const V t2158 = t2048 - t2157;
        const V t2159 = c[1] * t2093;
        const V t2160 = t2158 + t2159;
        const V t2161 = c[2] * t2117;
        const V t2162 = t2160 - t2161;
        const V t2163 = c[3] * t2072;
        const V t2164 = c[4] * t2096;
        const V t2165 = t2163 + t2164;
        const V t2166 = c[5] * t2120;
        const V t2167 = t2166 - t2165;
        const V t2168 = t2162 - t2167;
        const V t2169 = t2162 + t2167;
        // complex block of 7, multiplier 4
        const V t2170 = t2114 + t2066;
        const V t2171 = t2111 + t2063;
        const V t2172 = t2066 - t2114;
        const V t2173 = t2111 - t2063;
        const V t2174 = t2054 + t2126;
        const V t2175 = t2051 + t2123;
        const V t2176 = t2126 - t2054;
        const V t2177 = t2123 - t2051;
        const V t2178 = t2078 + t2102;
        const V t2179 = t2075 + t2099;
        const V t2180 = t2102 - t2078;
        const V t2181 = t2075 - t2099;
        const V t2182 = t2170 + t2174;
        const V t2183 = t2182 + t2178;
        const V t2184 = t2171 - t2175;
        const V t2185 = t2184 + t2179;
        const V t2186 = t2183 + t2090;
        const V t2187 = t2185 + t2087;
        const V t2188 = c[1] * t2170;
        const V t2189 = t2090 + t2188;
        const V t2190 = c[2] * t2174;
        const V t2191 = t2190 - t2189;
        const V t2192 = c[0] * t2178;
        const V t2193 = t2191 + t2192;
        const V t2194 = c[1] * t2171;
        const V t2195 = c[2] * t2175;
        const V t2196 = t2194 + t2195;
        const V t2197 = c[0] * t2179;
        const V t2198 = t2196 - t2197;
        const V t2199 = t2198 + t2087;
        const V t2200 = c[4] * t2172;
        const V t2201 = c[5] * t2176;
        const V t2202 = t2200 - t2201;
        const V t2203 = c[3] * t2180;
        const V t2204 = t2202 - t2203;
        const V t2205 = c[4] * t2173;
        const V t2206 = c[5] * t2177;
        const V t2207 = t2205 - t2206;
        const V t2208 = c[3] * t2181;
        const V t2209 = t2207 - t2208;
        const V t2210 = t2193 + t2209;
        const V t2211 = t2199 - t2204;
        const V t2212 = t2193 - t2209;
        const V t2213 = t2199 + t2204;
        const V t2214 = c[2] * t2170;
        const V t2215 = c[0] * t2174;
        const V t2216 = t2214 + t2215;
        const V t2217 = c[1] * t2178;
        const V t2218 = t2216 - t2217;
        const V t2219 = t2218 - t2090;
        const V t2220 = c[2] * t2171;
        const V t2221 = t2087 - t2220;
        const V t2222 = c[0] * t2175;
        const V t2223 = t2221 + t2222;
        const V t2224 = c[1] * t2179;
        const V t2225 = t2223 + t2224;
        const V t2226 = c[5] * t2172;
        const V t2227 = c[3] * t2176;
        const V t2228 = t2226 + t2227;
        const V t2229 = c[4] * t2180;
        const V t2230 = t2228 + t2229;
        const V t2231 = c[5] * t2173;
        const V t2232 = c[3] * t2177;
        const V t2233 = t2231 + t2232;
        const V t2234 = c[4] * t2181;
        const V t2235 = t2233 + t2234;
        const V t2236 = t2219 + t2235;
        const V t2237 = t2225 - t2230;
        const V t2238 = t2219 - t2235;
        const V t2239 = t2225 + t2230;
        const V t2240 = c[0] * t2170;
        const V t2241 = c[1] * t2174;
        const V t2242 = t2240 - t2241;
        const V t2243 = c[2] * t2178;
        const V t2244 = t2242 + t2243;
        const V t2245 = t2244 - t2090;
        const V t2246 = c[0] * t2171;
        const V t2247 = t2087 - t2246;
        const V t2248 = c[1] * t2175;
        const V t2249 = t2247 - t2248;
        const V t2250 = c[2] * t2179;
        const V t2251 = t2249 - t2250;
        const V t2252 = c[3] * t2172;
        const V t2253 = c[4] * t2176;
        const V t2254 = t2252 + t2253;
        const V t2255 = c[5] * t2180;
        const V t2256 = t2254 - t2255;
        const V t2257 = c[3] * t2173;
        const V t2258 = c[4] * t2177;
        const V t2259 = t2257 + t2258;
        const V t2260 = c[5] * t2181;
        const V t2261 = t2259 - t2260;
        const V t2262 = t2245 + t2261;
        const V t2263 = t2251 - t2256;
        const V t2264 = t2245 - t2261;
        const V t2265 = t2251 + t2256;
        // spectrum block of 7, multiplier 4
        const V t2266 = t2105 + t2081;
        const V t2267 = t2266 + t2057;
        const V t2268 = t2267 - t2127;
        const V t2269 = c[1] * t2105;
        const V t2270 = c[2] * t2081;
        const V t2271 = t2269 - t2270;
        const V t2272 = c[0] * t2057;
        const V t2273 = t2271 - t2272;
        const V t2274 = t2273 - t2127;
        const V t2275 = c[4] * t2108;
        const V t2276 = c[5] * t2084;
        const V t2277 = t2275 + t2276;
        const V t2278 = c[3] * t2060;
        const V t2279 = t2277 - t2278;
        const V t2280 = t2274 - t2279;
        const V t2281 = t2274 + t2279;
        const V t2282 = c[2] * t2105;
        const V t2283 = t2127 + t2282;
        const V t2284 = c[0] * t2081;
        const V t2285 = t2283 + t2284;
        const V t2286 = c[1] * t2057;
        const V t2287 = t2286 - t2285;
        const V t2288 = c[5] * t2108;
        const V t2289 = c[3] * t2084;
        const V t2290 = t2288 - t2289;
        const V t2291 = c[4] * t2060;
        const V t2292 = t2290 + t2291;
        const V t2293 = t2287 - t2292;
        const V t2294 = t2287 + t2292;
        const V t2295 = c[0] * t2105;
        const V t2296 = t2127 + t2295;
        const V t2297 = c[1] * t2081;
        const V t2298 = t2297 - t2296;
        const V t2299 = c[2] * t2057;
        const V t2300 = t2298 - t2299;
        const V t2301 = c[3] * t2108;
        const V t2302 = c[4] * t2084;
        const V t2303 = t2301 - t2302;
        const V t2304 = c[5] * t2060;
        const V t2305 = t2303 - t2304;
        const V t2306 = t2300 - t2305;
        const V t2307 = t2300 + t2305;
        // spectrum block of 2
        const V t2308 = t2130 + t2268;
        const V t2309 = t2130 - t2268;
        // spectrum block of 2
        const V t2310 = t2308 + t2187;
        io.out(44, t2310);
        const V t2311 = t2308 - t2187;
        io.out(55, t2311);
        // spectrum block of 2
        const V t2312 = t2309 - t2186;
        io.out(24, t2312);
        const V t2313 = t2309 + t2186;
        io.out(32, t2313);
        // spectrum block of 2
        const V t2314 = t2169 + t2307;
        const V t2315 = t2169 - t2307;
        // spectrum block of 2
        const V t2316 = t2314 + t2265;
        io.out(52, t2316);
        const V t2317 = t2314 - t2265;
        io.out(42, t2317);
        // spectrum block of 2
        const V t2318 = t2315 + t2264;
        io.out(13, t2318);
        const V t2319 = t2315 - t2264;
        io.out(50, t2319);
        // spectrum block of 2
        const V t2320 = t2142 + t2280;
        const V t2321 = t2142 - t2280;
        // spectrum block of 2
        const V t2322 = t2320 + t2211;
        io.out(34, t2322);
        const V t2323 = t2320 - t2211;
        io.out(33, t2323);
        // spectrum block of 2
        const V t2324 = t2321 + t2210;
        io.out(2, t2324);
        const V t2325 = t2321 - t2210;
        io.out(30, t2325);
        // spectrum block of 2
        const V t2326 = t2156 + t2294;
        const V t2327 = t2156 - t2294;
        // spectrum block of 2
        const V t2328 = t2326 + t2239;
        io.out(39, t2328);
        const V t2329 = t2326 - t2239;
        io.out(56, t2329);
        // spectrum block of 2
        const V t2330 = t2327 + t2238;
        io.out(31, t2330);
        const V t2331 = t2327 - t2238;
        io.out(40, t2331);
        // spectrum block of 2
        const V t2332 = t2155 + t2293;
        const V t2333 = t2155 - t2293;
        // spectrum block of 2
        const V t2334 = t2332 + t2237;
        io.out(23, t2334);
        const V t2335 = t2332 - t2237;
        io.out(18, t2335);
        // spectrum block of 2
        const V t2336 = t2333 + t2236;
        io.out(47, t2336);
        const V t2337 = t2333 - t2236;
        io.out(54, t2337);
        // spectrum block of 2
        const V t2338 = t2143 + t2281;
        const V t2339 = t2143 - t2281;
        // spectrum block of 2
        const V t2340 = t2338 + t2213;
        io.out(38, t2340);
        const V t2341 = t2338 - t2213;
        io.out(14, t2341);
        // spectrum block of 2
        const V t2342 = t2339 + t2212;
        io.out(11, t2342);
        const V t2343 = t2339 - t2212;
        io.out(43, t2343);
        // spectrum block of 2
        const V t2344 = t2168 + t2306;
        const V t2345 = t2168 - t2306;
        // spectrum block of 2
        const V t2346 = t2344 + t2263;
        io.out(37, t2346);
        const V t2347 = t2344 - t2263;
        io.out(8, t2347);
        // spectrum block of 2
        const V t2348 = t2345 + t2262;
        io.out(10, t2348);
        const V t2349 = t2345 - t2262;
        io.out(6, t2349);
        // spectrum block of 29, multiplier 2
        const V t2350 = t1262 + t1857;
        io.out(58, t2350);
        // spectrum block of 59
        const V t2351 = x0r + t280;
        io.out(0, t2351);
    }
};

}  // namespace zulg
