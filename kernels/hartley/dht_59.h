// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 59.
// Hartley transform of 59 points, form F.
// 707 additions, 691 subtractions, 954 multiplications (1013 with `scale`); 116 constants; 71 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<59> {
    static constexpr int steps = 2411;  // with `scale`
    static constexpr double inverseRoot = 0.13018891098082389;  // 1/sqrt(59), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.07274108340629196,  // c[6]: Q[7] of 29
        0.3777140697119294,  // c[7]: P[7] of 29
        0.3219828698364479,  // c[8]: -Q[1] of 29
        0.21044290248272673,  // c[9]: P[1] of 29
        0.19791793485411824,  // c[10]: Q[2] of 29
        0.3298297662985413,  // c[11]: P[2] of 29
        0.012126226322052493,  // c[12]: Q[3] of 29
        0.384463442096457,  // c[13]: P[3] of 29
        0.1330720128259635,  // c[14]: -Q[4] of 29
        0.3609030660383976,  // c[15]: P[4] of 29
        0.36147698792300353,  // c[16]: -Q[5] of 29
        0.13150502224471186,  // c[17]: -P[5] of 29
        0.054028864524680344,  // c[18]: -Q[6] of 29
        0.38084126020120657,  // c[19]: P[6] of 29
        0.26515058713755163,  // c[20]: Q[8] of 29
        0.2786653006997481,  // c[21]: P[8] of 29
        0.13446199615788765,  // c[22]: Q[9] of 29
        0.3603875070846735,  // c[23]: -P[9] of 29
        0.24228395147216553,  // c[24]: -Q[10] of 29
        0.2987602224736465,  // c[25]: -P[10] of 29
        0.38413584113980626,  // c[26]: Q[11] of 29
        0.019970959548377194,  // c[27]: P[11] of 29
        0.3753398540149231,  // c[28]: -Q[12] of 29
        0.08413784916151361,  // c[29]: P[12] of 29
        0.3398943908268515,  // c[30]: -Q[13] of 29
        0.1800860537573993,  // c[31]: P[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
        0.26445074818613296,  // c[34]: -Q[1] of 59
        0.014845190038075228,  // c[35]: -P[1] of 59
        0.044264026096884644,  // c[36]: -Q[2] of 59
        0.26114224835741606,  // c[37]: P[2] of 59
        0.08505303139228909,  // c[38]: -Q[3] of 59
        0.25083970924567417,  // c[39]: P[3] of 59
        0.2644019076085337,  // c[40]: Q[4] of 59
        0.015691052751184383,  // c[41]: -P[4] of 59
        0.26386145948235246,  // c[42]: Q[5] of 59
        0.02305879622432487,  // c[43]: -P[5] of 59
        0.2561089569283855,  // c[44]: Q[6] of 59
        0.06754835352935287,  // c[45]: P[6] of 59
        0.08001273571676054,  // c[46]: -Q[7] of 59
        0.25249265337152266,  // c[47]: P[7] of 59
        0.11501162603233117,  // c[48]: Q[8] of 59
        0.238593595389464,  // c[49]: P[8] of 59
        0.2570603151186636,  // c[50]: -Q[9] of 59
        0.0638323763819381,  // c[51]: -P[9] of 59
        0.240603592321257,  // c[52]: Q[10] of 59
        0.11074515450157817,  // c[53]: P[10] of 59
        0.15288063964143453,  // c[54]: Q[11] of 59
        0.21629167322460174,  // c[55]: -P[11] of 59
        0.08920241088977601,  // c[56]: Q[12] of 59
        0.24939428176067635,  // c[57]: -P[12] of 59
        0.2374982361930323,  // c[58]: Q[13] of 59
        0.11725683642615767,  // c[59]: -P[13] of 59
        0.22888251085220956,  // c[60]: Q[14] of 59
        0.13329431386769738,  // c[61]: -P[14] of 59
        0.02394684976343933,  // c[62]: -Q[15] of 59
        0.26378234639543136,  // c[63]: -P[15] of 59
        0.11457256668934328,  // c[64]: -Q[16] of 59
        0.23880474209212857,  // c[65]: P[16] of 59
        0.1612612423114406,  // c[66]: Q[17] of 59
        0.210117561407044,  // c[67]: P[17] of 59
        0.12353172004850395,  // c[68]: -Q[18] of 59
        0.23429573625085479,  // c[69]: P[18] of 59
        0.11676103224202658,  // c[70]: -Q[19] of 59
        0.2377423799688404,  // c[71]: P[19] of 59
        0.21542011720118803,  // c[72]: Q[20] of 59
        0.15410629769252931,  // c[73]: -P[20] of 59
        0.2309299428168255,  // c[74]: Q[21] of 59
        0.1297148387582923,  // c[75]: P[21] of 59
        0.1670393661682332,  // c[76]: Q[22] of 59
        0.20555395406945343,  // c[77]: P[22] of 59
        0.26033742546207705,  // c[78]: -Q[23] of 59
        0.0487750221655463,  // c[79]: -P[23] of 59
        0.008222825940389141,  // c[80]: -Q[24] of 59
        0.26473942475012313,  // c[81]: -P[24] of 59
        0.12154489634858227,  // c[82]: Q[25] of 59
        0.23533256479944387,  // c[83]: P[25] of 59
        0.14536461098959946,  // c[84]: Q[26] of 59
        0.2214129800967289,  // c[85]: P[26] of 59
        0.05421421718259892,  // c[86]: -Q[27] of 59
        0.25925932295435405,  // c[87]: -P[27] of 59
        0.0854499159287465,  // c[88]: Q[28] of 59
        0.2507047860557158,  // c[89]: P[28] of 59
        0.2768145884649087,  // c[90]: -P[1] of 29
        0.2670821358430261,  // c[91]: -Q[1] of 29
        0.32142566997698113,  // c[92]: Q[2] of 29
        0.21129297752958617,  // c[93]: P[2] of 29
        0.29302504444220384,  // c[94]: -P[3] of 29
        0.2491897008367598,  // c[95]: Q[3] of 29
        0.19919633623825483,  // c[96]: Q[4] of 29
        0.3290592701972177,  // c[97]: P[4] of 29
        0.26862162181749166,  // c[98]: -P[5] of 29
        0.27532091814028564,  // c[99]: -Q[5] of 29
        0.35927022128602587,  // c[100]: Q[6] of 29
        0.13741940099767344,  // c[101]: P[6] of 29
        0.21267702351981235,  // c[102]: Q[8] of 29
        0.3205115713047231,  // c[103]: -P[8] of 29
        0.035220206650882144,  // c[104]: -P[9] of 29
        0.38303879792644835,  // c[105]: -Q[9] of 29
        0.0825185747421179,  // c[106]: -Q[10] of 29
        0.37569917287106036,  // c[107]: P[10] of 29
        0.25511870438911255,  // c[108]: P[11] of 29
        0.28787780453569184,  // c[109]: -Q[11] of 29
        0.37467556794599116,  // c[110]: Q[12] of 29
        0.0870482765930398,  // c[111]: P[12] of 29
        0.0999373031094614,  // c[112]: P[13] of 29
        0.3714454456857387,  // c[113]: Q[13] of 29
        0.017241379310344827,  // c[114]: 1/58
        0.13243354737704496,  // c[115]: -beta of 59
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 7, multiplier 4
        const V x51 = io.in(51);
        const V x17 = io.in(17);
        const V t0 = x51 + x17;
        const V t1 = x51 - x17;
        const V x26 = io.in(26);
        const V x45 = io.in(45);
        const V t2 = x26 + x45;
        const V t3 = x26 - x45;
        const V x3 = io.in(3);
        const V x41 = io.in(41);
        const V t4 = x3 + x41;
        const V t5 = x3 - x41;
        const V t6 = t0 + t2;
        const V t7 = t6 + t4;
        const V x4 = io.in(4);
        const V t8 = t7 + x4;
        const V t9 = c[0] * t0;
        const V t10 = x4 - t9;
        const V t11 = c[1] * t2;
        const V t12 = t10 + t11;
        const V t13 = c[2] * t4;
        const V t14 = t12 - t13;
        const V t15 = c[3] * t1;
        const V t16 = c[4] * t3;
        const V t17 = c[5] * t5;
        const V t18 = t15 + t16;
        const V t19 = t18 - t17;
        const V t20 = c[1] * t0;
        const V t21 = c[2] * t2;
        const V t22 = t20 - t21;
        const V t23 = c[0] * t4;
        const V t24 = t22 - t23;
        const V t25 = t24 + x4;
        const V t26 = c[4] * t1;
        const V t27 = c[5] * t3;
        const V t28 = c[3] * t5;
        const V t29 = t27 + t28;
        const V t30 = t29 - t26;
        const V t31 = c[2] * t0;
        const V t32 = x4 - t31;
        const V t33 = c[0] * t2;
        const V t34 = t32 - t33;
        const V t35 = c[1] * t4;
        const V t36 = t34 + t35;
        const V t37 = c[5] * t1;
        const V t38 = c[3] * t3;
        const V t39 = c[4] * t5;
        const V t40 = t37 + t38;
        const V t41 = t40 + t39;
        // real block of 7, multiplier 4
        const V x49 = io.in(49);
        const V x46 = io.in(46);
        const V t42 = x49 + x46;
        const V t43 = x49 - x46;
        const V x57 = io.in(57);
        const V x48 = io.in(48);
        const V t44 = x57 + x48;
        const V t45 = x57 - x48;
        const V x28 = io.in(28);
        const V x12 = io.in(12);
        const V t46 = x28 + x12;
        const V t47 = x28 - x12;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V x35 = io.in(35);
        const V t50 = t49 + x35;
        const V t51 = c[0] * t42;
        const V t52 = x35 - t51;
        const V t53 = c[1] * t44;
        const V t54 = t52 + t53;
        const V t55 = c[2] * t46;
        const V t56 = t54 - t55;
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t57 + t58;
        const V t61 = t60 - t59;
        const V t62 = c[1] * t42;
        const V t63 = c[2] * t44;
        const V t64 = t62 - t63;
        const V t65 = c[0] * t46;
        const V t66 = t64 - t65;
        const V t67 = t66 + x35;
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t69 + t70;
        const V t72 = t71 - t68;
        const V t73 = c[2] * t42;
        const V t74 = x35 - t73;
        const V t75 = c[0] * t44;
        const V t76 = t74 - t75;
        const V t77 = c[1] * t46;
        const V t78 = t76 + t77;
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t79 + t80;
        const V t83 = t82 + t81;
        // real block of 7, multiplier 4
        const V x22 = io.in(22);
        const V x7 = io.in(7);
        const V t84 = x22 + x7;
        const V t85 = x22 - x7;
        const V x25 = io.in(25);
        const V x21 = io.in(21);
        const V t86 = x25 + x21;
        const V t87 = x25 - x21;
        const V x20 = io.in(20);
        const V x36 = io.in(36);
        const V t88 = x20 + x36;
        const V t89 = x20 - x36;
        const V t90 = t84 + t86;
        const V t91 = t90 + t88;
        const V x15 = io.in(15);
        const V t92 = t91 + x15;
        const V t93 = c[0] * t84;
        const V t94 = x15 - t93;
        const V t95 = c[1] * t86;
        const V t96 = t94 + t95;
        const V t97 = c[2] * t88;
        const V t98 = t96 - t97;
        const V t99 = c[3] * t85;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t89;
        const V t102 = t99 + t100;
        const V t103 = t102 - t101;
        const V t104 = c[1] * t84;
        const V t105 = c[2] * t86;
        const V t106 = t104 - t105;
        const V t107 = c[0] * t88;
        const V t108 = t106 - t107;
        const V t109 = t108 + x15;
        const V t110 = c[4] * t85;
        const V t111 = c[5] * t87;
        const V t112 = c[3] * t89;
        const V t113 = t111 + t112;
        const V t114 = t113 - t110;
        const V t115 = c[2] * t84;
        const V t116 = x15 - t115;
        const V t117 = c[0] * t86;
        const V t118 = t116 - t117;
        const V t119 = c[1] * t88;
        const V t120 = t118 + t119;
        const V t121 = c[5] * t85;
        const V t122 = c[3] * t87;
        const V t123 = c[4] * t89;
        const V t124 = t121 + t122;
        const V t125 = t124 + t123;
        // real block of 7, multiplier 4
        const V x53 = io.in(53);
        const V x9 = io.in(9);
        const V t126 = x53 + x9;
        const V t127 = x53 - x9;
        const V x29 = io.in(29);
        const V x16 = io.in(16);
        const V t128 = x29 + x16;
        const V t129 = x29 - x16;
        const V x19 = io.in(19);
        const V x5 = io.in(5);
        const V t130 = x19 + x5;
        const V t131 = x19 - x5;
        const V t132 = t126 + t128;
        const V t133 = t132 + t130;
        const V x27 = io.in(27);
        const V t134 = t133 + x27;
        const V t135 = c[0] * t126;
        const V t136 = x27 - t135;
        const V t137 = c[1] * t128;
        const V t138 = t136 + t137;
        const V t139 = c[2] * t130;
        const V t140 = t138 - t139;
        const V t141 = c[3] * t127;
        const V t142 = c[4] * t129;
        const V t143 = c[5] * t131;
        const V t144 = t141 + t142;
        const V t145 = t144 - t143;
        const V t146 = c[1] * t126;
        const V t147 = c[2] * t128;
        const V t148 = t146 - t147;
        const V t149 = c[0] * t130;
        const V t150 = t148 - t149;
        const V t151 = t150 + x27;
        const V t152 = c[4] * t127;
        const V t153 = c[5] * t129;
        const V t154 = c[3] * t131;
        const V t155 = t153 + t154;
        const V t156 = t155 - t152;
        const V t157 = c[2] * t126;
        const V t158 = x27 - t157;
        const V t159 = c[0] * t128;
        const V t160 = t158 - t159;
        const V t161 = c[1] * t130;
        const V t162 = t160 + t161;
        const V t163 = c[5] * t127;
        const V t164 = c[3] * t129;
        const V t165 = c[4] * t131;
        const V t166 = t163 + t164;
        const V t167 = t166 + t165;
        // real block of 2
        const V t168 = t8 + t92;
        const V t169 = t8 - t92;
        // real block of 2
        const V t170 = t50 + t134;
        const V t171 = t50 - t134;
        // real block of 2
        const V t172 = t168 + t170;
        const V t173 = t168 - t170;
        // complex block of 2
        const V t174 = t14 + t98;
        const V t175 = t19 + t103;
        const V t176 = t14 - t98;
        const V t177 = t19 - t103;
        // complex block of 2
        const V t178 = t56 + t140;
        const V t179 = t61 + t145;
        const V t180 = t56 - t140;
        const V t181 = t61 - t145;
        // complex block of 2
        const V t182 = t174 + t178;
        const V t183 = t175 + t179;
        const V t184 = t174 - t178;
        const V t185 = t175 - t179;
        // complex block of 2
        const V t186 = t176 - t181;
        const V t187 = t177 + t180;
        const V t188 = t176 + t181;
        const V t189 = t177 - t180;
        // complex block of 2
        const V t190 = t25 + t109;
        const V t191 = t30 + t114;
        const V t192 = t25 - t109;
        const V t193 = t30 - t114;
        // complex block of 2
        const V t194 = t67 + t151;
        const V t195 = t72 + t156;
        const V t196 = t67 - t151;
        const V t197 = t72 - t156;
        // complex block of 2
        const V t198 = t190 + t194;
        const V t199 = t191 + t195;
        const V t200 = t190 - t194;
        const V t201 = t191 - t195;
        // complex block of 2
        const V t202 = t192 - t197;
        const V t203 = t193 + t196;
        const V t204 = t192 + t197;
        const V t205 = t193 - t196;
        // complex block of 2
        const V t206 = t36 + t120;
        const V t207 = t41 + t125;
        const V t208 = t36 - t120;
        const V t209 = t41 - t125;
        // complex block of 2
        const V t210 = t78 + t162;
        const V t211 = t83 + t167;
        const V t212 = t78 - t162;
        const V t213 = t83 - t167;
        // complex block of 2
        const V t214 = t206 + t210;
        const V t215 = t207 + t211;
        const V t216 = t206 - t210;
        const V t217 = t207 - t211;
        // complex block of 2
        const V t218 = t208 - t213;
        const V t219 = t209 + t212;
        const V t220 = t208 + t213;
        const V t221 = t209 - t212;
        // real block of 29, multiplier 2
        const V x1 = io.in(1);
        const V t222 = x1 + t172;
        const V t223 = c[32] * t172;
        const V t224 = x1 - t223;
        const V t225 = c[8] * t205;
        const V t226 = c[9] * t204;
        const V t227 = t226 + t225;
        const V t228 = c[8] * t204;
        const V t229 = c[9] * t205;
        const V t230 = t229 - t228;
        const V t231 = c[10] * t217;
        const V t232 = c[11] * t216;
        const V t233 = t232 + t231;
        const V t234 = c[10] * t216;
        const V t235 = c[11] * t217;
        const V t236 = t234 - t235;
        const V t237 = c[12] * t189;
        const V t238 = c[13] * t188;
        const V t239 = t238 + t237;
        const V t240 = c[12] * t188;
        const V t241 = c[13] * t189;
        const V t242 = t240 - t241;
        const V t243 = c[14] * t183;
        const V t244 = c[15] * t182;
        const V t245 = t244 + t243;
        const V t246 = c[14] * t182;
        const V t247 = c[15] * t183;
        const V t248 = t247 - t246;
        const V t249 = c[16] * t221;
        const V t250 = c[17] * t220;
        const V t251 = t249 - t250;
        const V t252 = c[16] * t220;
        const V t253 = c[17] * t221;
        const V t254 = t253 + t252;
        const V t255 = c[18] * t201;
        const V t256 = c[19] * t200;
        const V t257 = t256 - t255;
        const V t258 = c[18] * t200;
        const V t259 = c[19] * t201;
        const V t260 = t259 + t258;
        const V t261 = c[6] * t171;
        const V t262 = c[7] * t169;
        const V t263 = t262 - t261;
        const V t264 = c[6] * t169;
        const V t265 = c[7] * t171;
        const V t266 = t265 + t264;
        const V t267 = c[20] * t199;
        const V t268 = c[21] * t198;
        const V t269 = t268 - t267;
        const V t270 = c[20] * t198;
        const V t271 = c[21] * t199;
        const V t272 = t271 + t270;
        const V t273 = c[22] * t219;
        const V t274 = c[23] * t218;
        const V t275 = t273 - t274;
        const V t276 = c[22] * t218;
        const V t277 = c[23] * t219;
        const V t278 = t277 + t276;
        const V t279 = c[24] * t185;
        const V t280 = c[25] * t184;
        const V t281 = t280 + t279;
        const V t282 = c[24] * t184;
        const V t283 = c[25] * t185;
        const V t284 = t283 - t282;
        const V t285 = c[26] * t187;
        const V t286 = c[27] * t186;
        const V t287 = t286 - t285;
        const V t288 = c[26] * t186;
        const V t289 = c[27] * t187;
        const V t290 = t289 + t288;
        const V t291 = c[28] * t215;
        const V t292 = c[29] * t214;
        const V t293 = t292 + t291;
        const V t294 = c[28] * t214;
        const V t295 = c[29] * t215;
        const V t296 = t295 - t294;
        const V t297 = c[30] * t203;
        const V t298 = c[31] * t202;
        const V t299 = t298 - t297;
        const V t300 = c[30] * t202;
        const V t301 = c[31] * t203;
        const V t302 = t301 + t300;
        const V t303 = c[33] * t173;
        // spectrum block of 2
        const V t304 = t224 - t303;
        const V t305 = t224 + t303;
        // complex block of 2
        const V t306 = t248 - t284;
        const V t307 = t245 - t281;
        const V t308 = t248 + t284;
        const V t309 = t245 + t281;
        // complex block of 2
        const V t310 = t272 + t260;
        const V t311 = t269 + t257;
        const V t312 = t272 - t260;
        const V t313 = t269 - t257;
        // complex block of 2
        const V t314 = t296 - t236;
        const V t315 = t293 + t233;
        const V t316 = t296 + t236;
        const V t317 = t293 - t233;
        // spectrum block of 7, multiplier 2
        const V t318 = t307 + t311;
        const V t319 = t318 + t315;
        const V t320 = t319 + t304;
        const V t321 = c[1] * t307;
        const V t322 = c[2] * t311;
        const V t323 = t321 - t322;
        const V t324 = c[0] * t315;
        const V t325 = t323 - t324;
        const V t326 = t325 + t304;
        const V t327 = c[4] * t306;
        const V t328 = c[5] * t310;
        const V t329 = t327 + t328;
        const V t330 = c[3] * t314;
        const V t331 = t329 + t330;
        const V t332 = t326 - t331;
        const V t333 = t326 + t331;
        const V t334 = c[2] * t307;
        const V t335 = t304 - t334;
        const V t336 = c[0] * t311;
        const V t337 = t335 - t336;
        const V t338 = c[1] * t315;
        const V t339 = t337 + t338;
        const V t340 = c[5] * t306;
        const V t341 = c[3] * t310;
        const V t342 = t340 - t341;
        const V t343 = c[4] * t314;
        const V t344 = t342 - t343;
        const V t345 = t339 - t344;
        const V t346 = t339 + t344;
        const V t347 = c[0] * t307;
        const V t348 = t304 - t347;
        const V t349 = c[1] * t311;
        const V t350 = t348 + t349;
        const V t351 = c[2] * t315;
        const V t352 = t350 - t351;
        const V t353 = c[3] * t306;
        const V t354 = c[4] * t310;
        const V t355 = t353 - t354;
        const V t356 = c[5] * t314;
        const V t357 = t355 + t356;
        const V t358 = t352 - t357;
        const V t359 = t352 + t357;
        // spectrum block of 7, multiplier 2
        const V t360 = t309 + t313;
        const V t361 = t360 + t317;
        const V t362 = t361 + t305;
        const V t363 = c[1] * t309;
        const V t364 = c[2] * t313;
        const V t365 = t363 - t364;
        const V t366 = c[0] * t317;
        const V t367 = t365 - t366;
        const V t368 = t367 + t305;
        const V t369 = c[4] * t308;
        const V t370 = c[5] * t312;
        const V t371 = t369 + t370;
        const V t372 = c[3] * t316;
        const V t373 = t371 + t372;
        const V t374 = t368 - t373;
        const V t375 = t368 + t373;
        const V t376 = c[2] * t309;
        const V t377 = t305 - t376;
        const V t378 = c[0] * t313;
        const V t379 = t377 - t378;
        const V t380 = c[1] * t317;
        const V t381 = t379 + t380;
        const V t382 = c[5] * t308;
        const V t383 = c[3] * t312;
        const V t384 = t382 - t383;
        const V t385 = c[4] * t316;
        const V t386 = t384 - t385;
        const V t387 = t381 - t386;
        const V t388 = t381 + t386;
        const V t389 = c[0] * t309;
        const V t390 = t305 - t389;
        const V t391 = c[1] * t313;
        const V t392 = t390 + t391;
        const V t393 = c[2] * t317;
        const V t394 = t392 - t393;
        const V t395 = c[3] * t308;
        const V t396 = c[4] * t312;
        const V t397 = t395 - t396;
        const V t398 = c[5] * t316;
        const V t399 = t397 + t398;
        const V t400 = t394 - t399;
        const V t401 = t394 + t399;
        // complex block of 2
        const V t402 = t299 - t227;
        const V t403 = t230 - t302;
        const V t404 = t227 + t299;
        const V t405 = t230 + t302;
        // mirrored skew block of 14
        const V t406 = c[2] * t404;
        const V t407 = c[5] * t405;
        const V t408 = t407 + t406;
        const V t409 = c[2] * t405;
        const V t410 = c[5] * t404;
        const V t411 = t409 - t410;
        // complex block of 2
        const V t412 = t287 - t239;
        const V t413 = t242 + t290;
        const V t414 = t239 + t287;
        const V t415 = t242 - t290;
        // mirrored skew block of 14
        const V t416 = c[1] * t414;
        const V t417 = c[4] * t415;
        const V t418 = t417 + t416;
        const V t419 = c[1] * t415;
        const V t420 = c[4] * t414;
        const V t421 = t419 - t420;
        // complex block of 2
        const V t422 = t275 - t251;
        const V t423 = t278 - t254;
        const V t424 = t251 + t275;
        const V t425 = t254 + t278;
        // mirrored skew block of 14
        const V t426 = c[0] * t424;
        const V t427 = c[3] * t425;
        const V t428 = t426 - t427;
        const V t429 = c[0] * t425;
        const V t430 = c[3] * t424;
        const V t431 = t430 + t429;
        // spectrum block of 7, multiplier 2
        const V t432 = t423 + t413;
        const V t433 = t432 + t403;
        const V t434 = t433 + t266;
        const V t435 = c[1] * t423;
        const V t436 = c[2] * t413;
        const V t437 = t435 - t436;
        const V t438 = c[0] * t403;
        const V t439 = t437 - t438;
        const V t440 = t439 + t266;
        const V t441 = c[4] * t422;
        const V t442 = c[5] * t412;
        const V t443 = t441 + t442;
        const V t444 = c[3] * t402;
        const V t445 = t443 + t444;
        const V t446 = t440 + t445;
        const V t447 = t440 - t445;
        const V t448 = c[2] * t423;
        const V t449 = t266 - t448;
        const V t450 = c[0] * t413;
        const V t451 = t449 - t450;
        const V t452 = c[1] * t403;
        const V t453 = t451 + t452;
        const V t454 = c[5] * t422;
        const V t455 = c[3] * t412;
        const V t456 = t455 - t454;
        const V t457 = c[4] * t402;
        const V t458 = t456 + t457;
        const V t459 = t453 - t458;
        const V t460 = t453 + t458;
        const V t461 = c[0] * t423;
        const V t462 = t266 - t461;
        const V t463 = c[1] * t413;
        const V t464 = t462 + t463;
        const V t465 = c[2] * t403;
        const V t466 = t464 - t465;
        const V t467 = c[3] * t422;
        const V t468 = c[4] * t412;
        const V t469 = t468 - t467;
        const V t470 = c[5] * t402;
        const V t471 = t469 - t470;
        const V t472 = t466 - t471;
        const V t473 = t466 + t471;
        // spectrum block of 7, multiplier 2
        const V t474 = t428 + t418;
        const V t475 = t474 + t408;
        const V t476 = t475 + t263;
        const V t477 = c[1] * t428;
        const V t478 = c[2] * t418;
        const V t479 = t477 - t478;
        const V t480 = c[0] * t408;
        const V t481 = t479 - t480;
        const V t482 = t481 + t263;
        const V t483 = c[4] * t431;
        const V t484 = c[5] * t421;
        const V t485 = t483 - t484;
        const V t486 = c[3] * t411;
        const V t487 = t485 - t486;
        const V t488 = t482 - t487;
        const V t489 = t482 + t487;
        const V t490 = c[2] * t428;
        const V t491 = t263 - t490;
        const V t492 = c[0] * t418;
        const V t493 = t491 - t492;
        const V t494 = c[1] * t408;
        const V t495 = t493 + t494;
        const V t496 = c[5] * t431;
        const V t497 = c[3] * t421;
        const V t498 = t496 + t497;
        const V t499 = c[4] * t411;
        const V t500 = t498 + t499;
        const V t501 = t495 - t500;
        const V t502 = t495 + t500;
        const V t503 = c[0] * t428;
        const V t504 = t263 - t503;
        const V t505 = c[1] * t418;
        const V t506 = t504 + t505;
        const V t507 = c[2] * t408;
        const V t508 = t506 - t507;
        const V t509 = c[3] * t431;
        const V t510 = c[4] * t421;
        const V t511 = t509 + t510;
        const V t512 = c[5] * t411;
        const V t513 = t511 - t512;
        const V t514 = t508 - t513;
        const V t515 = t508 + t513;
        // real block of 7, multiplier 4
        const V x8 = io.in(8);
        const V x42 = io.in(42);
        const V t516 = x8 + x42;
        const V t517 = x8 - x42;
        const V x33 = io.in(33);
        const V x14 = io.in(14);
        const V t518 = x33 + x14;
        const V t519 = x33 - x14;
        const V x56 = io.in(56);
        const V x18 = io.in(18);
        const V t520 = x56 + x18;
        const V t521 = x56 - x18;
        const V t522 = t516 + t518;
        const V t523 = t522 + t520;
        const V x55 = io.in(55);
        const V t524 = t523 + x55;
        const V t525 = c[0] * t516;
        const V t526 = x55 - t525;
        const V t527 = c[1] * t518;
        const V t528 = t526 + t527;
        const V t529 = c[2] * t520;
        const V t530 = t528 - t529;
        const V t531 = c[3] * t517;
        const V t532 = c[4] * t519;
        const V t533 = c[5] * t521;
        const V t534 = t531 + t532;
        const V t535 = t534 - t533;
        const V t536 = c[1] * t516;
        const V t537 = c[2] * t518;
        const V t538 = t536 - t537;
        const V t539 = c[0] * t520;
        const V t540 = t538 - t539;
        const V t541 = t540 + x55;
        const V t542 = c[4] * t517;
        const V t543 = c[5] * t519;
        const V t544 = c[3] * t521;
        const V t545 = t543 + t544;
        const V t546 = t545 - t542;
        const V t547 = c[2] * t516;
        const V t548 = x55 - t547;
        const V t549 = c[0] * t518;
        const V t550 = t548 - t549;
        const V t551 = c[1] * t520;
        const V t552 = t550 + t551;
        const V t553 = c[5] * t517;
        const V t554 = c[3] * t519;
        const V t555 = c[4] * t521;
        const V t556 = t553 + t554;
        const V t557 = t556 + t555;
        // real block of 7, multiplier 4
        const V x10 = io.in(10);
        const V x13 = io.in(13);
        const V t558 = x10 + x13;
        const V t559 = x10 - x13;
        const V x2 = io.in(2);
        const V x11 = io.in(11);
        const V t560 = x2 + x11;
        const V t561 = x2 - x11;
        const V x31 = io.in(31);
        const V x47 = io.in(47);
        const V t562 = x31 + x47;
        const V t563 = x31 - x47;
        const V t564 = t558 + t560;
        const V t565 = t564 + t562;
        const V x24 = io.in(24);
        const V t566 = t565 + x24;
        const V t567 = c[0] * t558;
        const V t568 = x24 - t567;
        const V t569 = c[1] * t560;
        const V t570 = t568 + t569;
        const V t571 = c[2] * t562;
        const V t572 = t570 - t571;
        const V t573 = c[3] * t559;
        const V t574 = c[4] * t561;
        const V t575 = c[5] * t563;
        const V t576 = t573 + t574;
        const V t577 = t576 - t575;
        const V t578 = c[1] * t558;
        const V t579 = c[2] * t560;
        const V t580 = t578 - t579;
        const V t581 = c[0] * t562;
        const V t582 = t580 - t581;
        const V t583 = t582 + x24;
        const V t584 = c[4] * t559;
        const V t585 = c[5] * t561;
        const V t586 = c[3] * t563;
        const V t587 = t585 + t586;
        const V t588 = t587 - t584;
        const V t589 = c[2] * t558;
        const V t590 = x24 - t589;
        const V t591 = c[0] * t560;
        const V t592 = t590 - t591;
        const V t593 = c[1] * t562;
        const V t594 = t592 + t593;
        const V t595 = c[5] * t559;
        const V t596 = c[3] * t561;
        const V t597 = c[4] * t563;
        const V t598 = t595 + t596;
        const V t599 = t598 + t597;
        // real block of 7, multiplier 4
        const V x37 = io.in(37);
        const V x52 = io.in(52);
        const V t600 = x37 + x52;
        const V t601 = x37 - x52;
        const V x34 = io.in(34);
        const V x38 = io.in(38);
        const V t602 = x34 + x38;
        const V t603 = x34 - x38;
        const V x39 = io.in(39);
        const V x23 = io.in(23);
        const V t604 = x39 + x23;
        const V t605 = x39 - x23;
        const V t606 = t600 + t602;
        const V t607 = t606 + t604;
        const V x44 = io.in(44);
        const V t608 = t607 + x44;
        const V t609 = c[0] * t600;
        const V t610 = x44 - t609;
        const V t611 = c[1] * t602;
        const V t612 = t610 + t611;
        const V t613 = c[2] * t604;
        const V t614 = t612 - t613;
        const V t615 = c[3] * t601;
        const V t616 = c[4] * t603;
        const V t617 = c[5] * t605;
        const V t618 = t615 + t616;
        const V t619 = t618 - t617;
        const V t620 = c[1] * t600;
        const V t621 = c[2] * t602;
        const V t622 = t620 - t621;
        const V t623 = c[0] * t604;
        const V t624 = t622 - t623;
        const V t625 = t624 + x44;
        const V t626 = c[4] * t601;
        const V t627 = c[5] * t603;
        const V t628 = c[3] * t605;
        const V t629 = t627 + t628;
        const V t630 = t629 - t626;
        const V t631 = c[2] * t600;
        const V t632 = x44 - t631;
        const V t633 = c[0] * t602;
        const V t634 = t632 - t633;
        const V t635 = c[1] * t604;
        const V t636 = t634 + t635;
        const V t637 = c[5] * t601;
        const V t638 = c[3] * t603;
        const V t639 = c[4] * t605;
        const V t640 = t637 + t638;
        const V t641 = t640 + t639;
        // real block of 7, multiplier 4
        const V x6 = io.in(6);
        const V x50 = io.in(50);
        const V t642 = x6 + x50;
        const V t643 = x6 - x50;
        const V x30 = io.in(30);
        const V x43 = io.in(43);
        const V t644 = x30 + x43;
        const V t645 = x30 - x43;
        const V x40 = io.in(40);
        const V x54 = io.in(54);
        const V t646 = x40 + x54;
        const V t647 = x40 - x54;
        const V t648 = t642 + t644;
        const V t649 = t648 + t646;
        const V x32 = io.in(32);
        const V t650 = t649 + x32;
        const V t651 = c[0] * t642;
        const V t652 = x32 - t651;
        const V t653 = c[1] * t644;
        const V t654 = t652 + t653;
        const V t655 = c[2] * t646;
        const V t656 = t654 - t655;
        const V t657 = c[3] * t643;
        const V t658 = c[4] * t645;
        const V t659 = c[5] * t647;
        const V t660 = t657 + t658;
        const V t661 = t660 - t659;
        const V t662 = c[1] * t642;
        const V t663 = c[2] * t644;
        const V t664 = t662 - t663;
        const V t665 = c[0] * t646;
        const V t666 = t664 - t665;
        const V t667 = t666 + x32;
        const V t668 = c[4] * t643;
        const V t669 = c[5] * t645;
        const V t670 = c[3] * t647;
        const V t671 = t669 + t670;
        const V t672 = t671 - t668;
        const V t673 = c[2] * t642;
        const V t674 = x32 - t673;
        const V t675 = c[0] * t644;
        const V t676 = t674 - t675;
        const V t677 = c[1] * t646;
        const V t678 = t676 + t677;
        const V t679 = c[5] * t643;
        const V t680 = c[3] * t645;
        const V t681 = c[4] * t647;
        const V t682 = t679 + t680;
        const V t683 = t682 + t681;
        // real block of 2
        const V t684 = t524 + t608;
        const V t685 = t524 - t608;
        // real block of 2
        const V t686 = t566 + t650;
        const V t687 = t566 - t650;
        // real block of 2
        const V t688 = t684 + t686;
        const V t689 = t684 - t686;
        // complex block of 2
        const V t690 = t530 + t614;
        const V t691 = t535 + t619;
        const V t692 = t530 - t614;
        const V t693 = t535 - t619;
        // complex block of 2
        const V t694 = t572 + t656;
        const V t695 = t577 + t661;
        const V t696 = t572 - t656;
        const V t697 = t577 - t661;
        // complex block of 2
        const V t698 = t690 + t694;
        const V t699 = t691 + t695;
        const V t700 = t690 - t694;
        const V t701 = t691 - t695;
        // complex block of 2
        const V t702 = t692 - t697;
        const V t703 = t693 + t696;
        const V t704 = t692 + t697;
        const V t705 = t693 - t696;
        // complex block of 2
        const V t706 = t541 + t625;
        const V t707 = t546 + t630;
        const V t708 = t541 - t625;
        const V t709 = t546 - t630;
        // complex block of 2
        const V t710 = t583 + t667;
        const V t711 = t588 + t672;
        const V t712 = t583 - t667;
        const V t713 = t588 - t672;
        // complex block of 2
        const V t714 = t706 + t710;
        const V t715 = t707 + t711;
        const V t716 = t706 - t710;
        const V t717 = t707 - t711;
        // complex block of 2
        const V t718 = t708 - t713;
        const V t719 = t709 + t712;
        const V t720 = t708 + t713;
        const V t721 = t709 - t712;
        // complex block of 2
        const V t722 = t552 + t636;
        const V t723 = t557 + t641;
        const V t724 = t552 - t636;
        const V t725 = t557 - t641;
        // complex block of 2
        const V t726 = t594 + t678;
        const V t727 = t599 + t683;
        const V t728 = t594 - t678;
        const V t729 = t599 - t683;
        // complex block of 2
        const V t730 = t722 + t726;
        const V t731 = t723 + t727;
        const V t732 = t722 - t726;
        const V t733 = t723 - t727;
        // complex block of 2
        const V t734 = t724 - t729;
        const V t735 = t725 + t728;
        const V t736 = t724 + t729;
        const V t737 = t725 - t728;
        // real block of 29, multiplier 2
        const V x58 = io.in(58);
        const V t738 = x58 + t688;
        const V t739 = c[32] * t688;
        const V t740 = x58 - t739;
        const V t741 = c[8] * t721;
        const V t742 = c[9] * t720;
        const V t743 = t742 + t741;
        const V t744 = c[8] * t720;
        const V t745 = c[9] * t721;
        const V t746 = t745 - t744;
        const V t747 = c[10] * t733;
        const V t748 = c[11] * t732;
        const V t749 = t748 + t747;
        const V t750 = c[10] * t732;
        const V t751 = c[11] * t733;
        const V t752 = t750 - t751;
        const V t753 = c[12] * t705;
        const V t754 = c[13] * t704;
        const V t755 = t754 + t753;
        const V t756 = c[12] * t704;
        const V t757 = c[13] * t705;
        const V t758 = t756 - t757;
        const V t759 = c[14] * t699;
        const V t760 = c[15] * t698;
        const V t761 = t760 + t759;
        const V t762 = c[14] * t698;
        const V t763 = c[15] * t699;
        const V t764 = t763 - t762;
        const V t765 = c[16] * t737;
        const V t766 = c[17] * t736;
        const V t767 = t765 - t766;
        const V t768 = c[16] * t736;
        const V t769 = c[17] * t737;
        const V t770 = t769 + t768;
        const V t771 = c[18] * t717;
        const V t772 = c[19] * t716;
        const V t773 = t772 - t771;
        const V t774 = c[18] * t716;
        const V t775 = c[19] * t717;
        const V t776 = t775 + t774;
        const V t777 = c[6] * t687;
        const V t778 = c[7] * t685;
        const V t779 = t778 - t777;
        const V t780 = c[6] * t685;
        const V t781 = c[7] * t687;
        const V t782 = t781 + t780;
        const V t783 = c[20] * t715;
        const V t784 = c[21] * t714;
        const V t785 = t784 - t783;
        const V t786 = c[20] * t714;
        const V t787 = c[21] * t715;
        const V t788 = t787 + t786;
        const V t789 = c[22] * t735;
        const V t790 = c[23] * t734;
        const V t791 = t789 - t790;
        const V t792 = c[22] * t734;
        const V t793 = c[23] * t735;
        const V t794 = t793 + t792;
        const V t795 = c[24] * t701;
        const V t796 = c[25] * t700;
        const V t797 = t796 + t795;
        const V t798 = c[24] * t700;
        const V t799 = c[25] * t701;
        const V t800 = t799 - t798;
        const V t801 = c[26] * t703;
        const V t802 = c[27] * t702;
        const V t803 = t802 - t801;
        const V t804 = c[26] * t702;
        const V t805 = c[27] * t703;
        const V t806 = t805 + t804;
        const V t807 = c[28] * t731;
        const V t808 = c[29] * t730;
        const V t809 = t808 + t807;
        const V t810 = c[28] * t730;
        const V t811 = c[29] * t731;
        const V t812 = t811 - t810;
        const V t813 = c[30] * t719;
        const V t814 = c[31] * t718;
        const V t815 = t814 - t813;
        const V t816 = c[30] * t718;
        const V t817 = c[31] * t719;
        const V t818 = t817 + t816;
        const V t819 = c[33] * t689;
        // spectrum block of 2
        const V t820 = t740 - t819;
        const V t821 = t740 + t819;
        // complex block of 2
        const V t822 = t764 - t800;
        const V t823 = t761 - t797;
        const V t824 = t764 + t800;
        const V t825 = t761 + t797;
        // complex block of 2
        const V t826 = t788 + t776;
        const V t827 = t785 + t773;
        const V t828 = t788 - t776;
        const V t829 = t785 - t773;
        // complex block of 2
        const V t830 = t812 - t752;
        const V t831 = t809 + t749;
        const V t832 = t812 + t752;
        const V t833 = t809 - t749;
        // spectrum block of 7, multiplier 2
        const V t834 = t823 + t827;
        const V t835 = t834 + t831;
        const V t836 = t835 + t820;
        const V t837 = c[1] * t823;
        const V t838 = c[2] * t827;
        const V t839 = t837 - t838;
        const V t840 = c[0] * t831;
        const V t841 = t839 - t840;
        const V t842 = t841 + t820;
        const V t843 = c[4] * t822;
        const V t844 = c[5] * t826;
        const V t845 = t843 + t844;
        const V t846 = c[3] * t830;
        const V t847 = t845 + t846;
        const V t848 = t842 - t847;
        const V t849 = t842 + t847;
        const V t850 = c[2] * t823;
        const V t851 = t820 - t850;
        const V t852 = c[0] * t827;
        const V t853 = t851 - t852;
        const V t854 = c[1] * t831;
        const V t855 = t853 + t854;
        const V t856 = c[5] * t822;
        const V t857 = c[3] * t826;
        const V t858 = t856 - t857;
        const V t859 = c[4] * t830;
        const V t860 = t858 - t859;
        const V t861 = t855 - t860;
        const V t862 = t855 + t860;
        const V t863 = c[0] * t823;
        const V t864 = t820 - t863;
        const V t865 = c[1] * t827;
        const V t866 = t864 + t865;
        const V t867 = c[2] * t831;
        const V t868 = t866 - t867;
        const V t869 = c[3] * t822;
        const V t870 = c[4] * t826;
        const V t871 = t869 - t870;
        const V t872 = c[5] * t830;
        const V t873 = t871 + t872;
        const V t874 = t868 - t873;
        const V t875 = t868 + t873;
        // spectrum block of 7, multiplier 2
        const V t876 = t825 + t829;
        const V t877 = t876 + t833;
        const V t878 = t877 + t821;
        const V t879 = c[1] * t825;
        const V t880 = c[2] * t829;
        const V t881 = t879 - t880;
        const V t882 = c[0] * t833;
        const V t883 = t881 - t882;
        const V t884 = t883 + t821;
        const V t885 = c[4] * t824;
        const V t886 = c[5] * t828;
        const V t887 = t885 + t886;
        const V t888 = c[3] * t832;
        const V t889 = t887 + t888;
        const V t890 = t884 - t889;
        const V t891 = t884 + t889;
        const V t892 = c[2] * t825;
        const V t893 = t821 - t892;
        const V t894 = c[0] * t829;
        const V t895 = t893 - t894;
        const V t896 = c[1] * t833;
        const V t897 = t895 + t896;
        const V t898 = c[5] * t824;
        const V t899 = c[3] * t828;
        const V t900 = t898 - t899;
        const V t901 = c[4] * t832;
        const V t902 = t900 - t901;
        const V t903 = t897 - t902;
        const V t904 = t897 + t902;
        const V t905 = c[0] * t825;
        const V t906 = t821 - t905;
        const V t907 = c[1] * t829;
        const V t908 = t906 + t907;
        const V t909 = c[2] * t833;
        const V t910 = t908 - t909;
        const V t911 = c[3] * t824;
        const V t912 = c[4] * t828;
        const V t913 = t911 - t912;
        const V t914 = c[5] * t832;
        const V t915 = t913 + t914;
        const V t916 = t910 - t915;
        const V t917 = t910 + t915;
        // complex block of 2
        const V t918 = t815 - t743;
        const V t919 = t746 - t818;
        const V t920 = t743 + t815;
        const V t921 = t746 + t818;
        // mirrored skew block of 14
        const V t922 = c[2] * t920;
        const V t923 = c[5] * t921;
        const V t924 = t923 + t922;
        const V t925 = c[2] * t921;
        const V t926 = c[5] * t920;
        const V t927 = t925 - t926;
        // complex block of 2
        const V t928 = t803 - t755;
        const V t929 = t758 + t806;
        const V t930 = t755 + t803;
        const V t931 = t758 - t806;
        // mirrored skew block of 14
        const V t932 = c[1] * t930;
        const V t933 = c[4] * t931;
        const V t934 = t933 + t932;
        const V t935 = c[1] * t931;
        const V t936 = c[4] * t930;
        const V t937 = t935 - t936;
        // complex block of 2
        const V t938 = t791 - t767;
        const V t939 = t794 - t770;
        const V t940 = t767 + t791;
        const V t941 = t770 + t794;
        // mirrored skew block of 14
        const V t942 = c[0] * t940;
        const V t943 = c[3] * t941;
        const V t944 = t942 - t943;
        const V t945 = c[0] * t941;
        const V t946 = c[3] * t940;
        const V t947 = t946 + t945;
        // spectrum block of 7, multiplier 2
        const V t948 = t939 + t929;
        const V t949 = t948 + t919;
        const V t950 = t949 + t782;
        const V t951 = c[1] * t939;
        const V t952 = c[2] * t929;
        const V t953 = t951 - t952;
        const V t954 = c[0] * t919;
        const V t955 = t953 - t954;
        const V t956 = t955 + t782;
        const V t957 = c[4] * t938;
        const V t958 = c[5] * t928;
        const V t959 = t957 + t958;
        const V t960 = c[3] * t918;
        const V t961 = t959 + t960;
        const V t962 = t956 + t961;
        const V t963 = t956 - t961;
        const V t964 = c[2] * t939;
        const V t965 = t782 - t964;
        const V t966 = c[0] * t929;
        const V t967 = t965 - t966;
        const V t968 = c[1] * t919;
        const V t969 = t967 + t968;
        const V t970 = c[5] * t938;
        const V t971 = c[3] * t928;
        const V t972 = t971 - t970;
        const V t973 = c[4] * t918;
        const V t974 = t972 + t973;
        const V t975 = t969 - t974;
        const V t976 = t969 + t974;
        const V t977 = c[0] * t939;
        const V t978 = t782 - t977;
        const V t979 = c[1] * t929;
        const V t980 = t978 + t979;
        const V t981 = c[2] * t919;
        const V t982 = t980 - t981;
        const V t983 = c[3] * t938;
        const V t984 = c[4] * t928;
        const V t985 = t984 - t983;
        const V t986 = c[5] * t918;
        const V t987 = t985 - t986;
        const V t988 = t982 - t987;
        const V t989 = t982 + t987;
        // spectrum block of 7, multiplier 2
        const V t990 = t944 + t934;
        const V t991 = t990 + t924;
        const V t992 = t991 + t779;
        const V t993 = c[1] * t944;
        const V t994 = c[2] * t934;
        const V t995 = t993 - t994;
        const V t996 = c[0] * t924;
        const V t997 = t995 - t996;
        const V t998 = t997 + t779;
        const V t999 = c[4] * t947;
        const V t1000 = c[5] * t937;
        const V t1001 = t999 - t1000;
        const V t1002 = c[3] * t927;
        const V t1003 = t1001 - t1002;
        const V t1004 = t998 - t1003;
        const V t1005 = t998 + t1003;
        const V t1006 = c[2] * t944;
        const V t1007 = t779 - t1006;
        const V t1008 = c[0] * t934;
        const V t1009 = t1007 - t1008;
        const V t1010 = c[1] * t924;
        const V t1011 = t1009 + t1010;
        const V t1012 = c[5] * t947;
        const V t1013 = c[3] * t937;
        const V t1014 = t1012 + t1013;
        const V t1015 = c[4] * t927;
        const V t1016 = t1014 + t1015;
        const V t1017 = t1011 - t1016;
        const V t1018 = t1011 + t1016;
        const V t1019 = c[0] * t944;
        const V t1020 = t779 - t1019;
        const V t1021 = c[1] * t934;
        const V t1022 = t1020 + t1021;
        const V t1023 = c[2] * t924;
        const V t1024 = t1022 - t1023;
        const V t1025 = c[3] * t947;
        const V t1026 = c[4] * t937;
        const V t1027 = t1025 + t1026;
        const V t1028 = c[5] * t927;
        const V t1029 = t1027 - t1028;
        const V t1030 = t1024 - t1029;
        const V t1031 = t1024 + t1029;
        // real block of 2
        const V t1032 = t222 + t738;
        const V t1033 = t222 - t738;
        // complex block of 2
        const V t1034 = t320 + t836;
        const V t1035 = t434 + t950;
        const V t1036 = t320 - t836;
        const V t1037 = t434 - t950;
        // complex block of 2
        const V t1038 = t375 + t891;
        const V t1039 = t489 + t1005;
        const V t1040 = t375 - t891;
        const V t1041 = t1005 - t489;
        // complex block of 2
        const V t1042 = t387 + t903;
        const V t1043 = t515 + t1031;
        const V t1044 = t387 - t903;
        const V t1045 = t1031 - t515;
        // complex block of 2
        const V t1046 = t346 + t862;
        const V t1047 = t447 + t963;
        const V t1048 = t346 - t862;
        const V t1049 = t963 - t447;
        // complex block of 2
        const V t1050 = t333 + t849;
        const V t1051 = t472 + t988;
        const V t1052 = t333 - t849;
        const V t1053 = t988 - t472;
        // complex block of 2
        const V t1054 = t332 + t848;
        const V t1055 = t473 + t989;
        const V t1056 = t332 - t848;
        const V t1057 = t989 - t473;
        // complex block of 2
        const V t1058 = t345 + t861;
        const V t1059 = t446 + t962;
        const V t1060 = t345 - t861;
        const V t1061 = t446 - t962;
        // complex block of 2
        const V t1062 = t401 + t917;
        const V t1063 = t502 + t1018;
        const V t1064 = t401 - t917;
        const V t1065 = t502 - t1018;
        // complex block of 2
        const V t1066 = t359 + t875;
        const V t1067 = t459 + t975;
        const V t1068 = t359 - t875;
        const V t1069 = t975 - t459;
        // complex block of 2
        const V t1070 = t388 + t904;
        const V t1071 = t501 + t1017;
        const V t1072 = t388 - t904;
        const V t1073 = t501 - t1017;
        // complex block of 2
        const V t1074 = t400 + t916;
        const V t1075 = t488 + t1004;
        const V t1076 = t400 - t916;
        const V t1077 = t1004 - t488;
        // complex block of 2
        const V t1078 = t362 + t878;
        const V t1079 = t514 + t1030;
        const V t1080 = t362 - t878;
        const V t1081 = t514 - t1030;
        // complex block of 2
        const V t1082 = t358 + t874;
        const V t1083 = t460 + t976;
        const V t1084 = t358 - t874;
        const V t1085 = t976 - t460;
        // complex block of 2
        const V t1086 = t374 + t890;
        const V t1087 = t476 + t992;
        const V t1088 = t374 - t890;
        const V t1089 = t992 - t476;
        // real block of 59
        const V x0 = io.in(0);
        const V t1090 = x0 + t1032;
        io.out(0, t1090);
        const V t1091 = c[114] * t1032;
        const V t1092 = x0 - t1091;
        const V t1093 = c[34] * t1089;
        const V t1094 = c[35] * t1088;
        const V t1095 = t1094 + t1093;
        const V t1096 = c[34] * t1088;
        const V t1097 = c[35] * t1089;
        const V t1098 = t1097 - t1096;
        const V t1099 = c[36] * t1035;
        const V t1100 = c[37] * t1034;
        const V t1101 = t1100 + t1099;
        const V t1102 = c[36] * t1034;
        const V t1103 = c[37] * t1035;
        const V t1104 = t1103 - t1102;
        const V t1105 = c[38] * t1085;
        const V t1106 = c[39] * t1084;
        const V t1107 = t1106 - t1105;
        const V t1108 = c[38] * t1084;
        const V t1109 = c[39] * t1085;
        const V t1110 = t1109 + t1108;
        const V t1111 = c[40] * t1039;
        const V t1112 = c[41] * t1038;
        const V t1113 = t1111 - t1112;
        const V t1114 = c[40] * t1038;
        const V t1115 = c[41] * t1039;
        const V t1116 = t1115 + t1114;
        const V t1117 = c[42] * t1081;
        const V t1118 = c[43] * t1080;
        const V t1119 = t1117 - t1118;
        const V t1120 = c[42] * t1080;
        const V t1121 = c[43] * t1081;
        const V t1122 = t1121 + t1120;
        const V t1123 = c[44] * t1043;
        const V t1124 = c[45] * t1042;
        const V t1125 = t1124 + t1123;
        const V t1126 = c[44] * t1042;
        const V t1127 = c[45] * t1043;
        const V t1128 = t1126 - t1127;
        const V t1129 = c[46] * t1077;
        const V t1130 = c[47] * t1076;
        const V t1131 = t1130 - t1129;
        const V t1132 = c[46] * t1076;
        const V t1133 = c[47] * t1077;
        const V t1134 = t1133 + t1132;
        const V t1135 = c[48] * t1047;
        const V t1136 = c[49] * t1046;
        const V t1137 = t1136 + t1135;
        const V t1138 = c[48] * t1046;
        const V t1139 = c[49] * t1047;
        const V t1140 = t1138 - t1139;
        const V t1141 = c[50] * t1073;
        const V t1142 = c[51] * t1072;
        const V t1143 = t1142 + t1141;
        const V t1144 = c[50] * t1072;
        const V t1145 = c[51] * t1073;
        const V t1146 = t1145 - t1144;
        const V t1147 = c[52] * t1051;
        const V t1148 = c[53] * t1050;
        const V t1149 = t1148 + t1147;
        const V t1150 = c[52] * t1050;
        const V t1151 = c[53] * t1051;
        const V t1152 = t1150 - t1151;
        const V t1153 = c[54] * t1069;
        const V t1154 = c[55] * t1068;
        const V t1155 = t1153 - t1154;
        const V t1156 = c[54] * t1068;
        const V t1157 = c[55] * t1069;
        const V t1158 = t1157 + t1156;
        const V t1159 = c[56] * t1055;
        const V t1160 = c[57] * t1054;
        const V t1161 = t1159 - t1160;
        const V t1162 = c[56] * t1054;
        const V t1163 = c[57] * t1055;
        const V t1164 = t1163 + t1162;
        const V t1165 = c[58] * t1065;
        const V t1166 = c[59] * t1064;
        const V t1167 = t1165 - t1166;
        const V t1168 = c[58] * t1064;
        const V t1169 = c[59] * t1065;
        const V t1170 = t1169 + t1168;
        const V t1171 = c[60] * t1059;
        const V t1172 = c[61] * t1058;
        const V t1173 = t1172 + t1171;
        const V t1174 = c[60] * t1058;
        const V t1175 = c[61] * t1059;
        const V t1176 = t1174 - t1175;
        const V t1177 = c[62] * t1061;
        const V t1178 = c[63] * t1060;
        const V t1179 = t1178 + t1177;
        const V t1180 = c[62] * t1060;
        const V t1181 = c[63] * t1061;
        const V t1182 = t1181 - t1180;
        const V t1183 = c[64] * t1063;
        const V t1184 = c[65] * t1062;
        const V t1185 = t1184 + t1183;
        const V t1186 = c[64] * t1062;
        const V t1187 = c[65] * t1063;
        const V t1188 = t1187 - t1186;
        const V t1189 = c[66] * t1057;
        const V t1190 = c[67] * t1056;
        const V t1191 = t1190 + t1189;
        const V t1192 = c[66] * t1056;
        const V t1193 = c[67] * t1057;
        const V t1194 = t1192 - t1193;
        const V t1195 = c[68] * t1067;
        const V t1196 = c[69] * t1066;
        const V t1197 = t1196 - t1195;
        const V t1198 = c[68] * t1066;
        const V t1199 = c[69] * t1067;
        const V t1200 = t1199 + t1198;
        const V t1201 = c[70] * t1053;
        const V t1202 = c[71] * t1052;
        const V t1203 = t1202 - t1201;
        const V t1204 = c[70] * t1052;
        const V t1205 = c[71] * t1053;
        const V t1206 = t1205 + t1204;
        const V t1207 = c[72] * t1071;
        const V t1208 = c[73] * t1070;
        const V t1209 = t1208 + t1207;
        const V t1210 = c[72] * t1070;
        const V t1211 = c[73] * t1071;
        const V t1212 = t1210 - t1211;
        const V t1213 = c[74] * t1049;
        const V t1214 = c[75] * t1048;
        const V t1215 = t1214 + t1213;
        const V t1216 = c[74] * t1048;
        const V t1217 = c[75] * t1049;
        const V t1218 = t1216 - t1217;
        const V t1219 = c[76] * t1075;
        const V t1220 = c[77] * t1074;
        const V t1221 = t1220 + t1219;
        const V t1222 = c[76] * t1074;
        const V t1223 = c[77] * t1075;
        const V t1224 = t1222 - t1223;
        const V t1225 = c[78] * t1045;
        const V t1226 = c[79] * t1044;
        const V t1227 = t1226 + t1225;
        const V t1228 = c[78] * t1044;
        const V t1229 = c[79] * t1045;
        const V t1230 = t1229 - t1228;
        const V t1231 = c[80] * t1079;
        const V t1232 = c[81] * t1078;
        const V t1233 = t1231 - t1232;
        const V t1234 = c[80] * t1078;
        const V t1235 = c[81] * t1079;
        const V t1236 = t1235 + t1234;
        const V t1237 = c[82] * t1041;
        const V t1238 = c[83] * t1040;
        const V t1239 = t1238 + t1237;
        const V t1240 = c[82] * t1040;
        const V t1241 = c[83] * t1041;
        const V t1242 = t1240 - t1241;
        const V t1243 = c[84] * t1083;
        const V t1244 = c[85] * t1082;
        const V t1245 = t1244 + t1243;
        const V t1246 = c[84] * t1082;
        const V t1247 = c[85] * t1083;
        const V t1248 = t1246 - t1247;
        const V t1249 = c[86] * t1037;
        const V t1250 = c[87] * t1036;
        const V t1251 = t1250 + t1249;
        const V t1252 = c[86] * t1036;
        const V t1253 = c[87] * t1037;
        const V t1254 = t1253 - t1252;
        const V t1255 = c[88] * t1087;
        const V t1256 = c[89] * t1086;
        const V t1257 = t1256 + t1255;
        const V t1258 = c[88] * t1086;
        const V t1259 = c[89] * t1087;
        const V t1260 = t1258 - t1259;
        const V t1261 = c[115] * t1033;
        // real block of 2
        const V t1262 = t1101 + t1233;
        const V t1263 = t1101 - t1233;
        // real block of 2
        const V t1264 = t1137 - t1209;
        const V t1265 = t1137 + t1209;
        // real block of 2
        const V t1266 = t1245 + t1221;
        const V t1267 = t1245 - t1221;
        // real block of 2
        const V t1268 = t1161 + t1257;
        const V t1269 = t1161 - t1257;
        // real block of 2
        const V t1270 = t1149 + t1113;
        const V t1271 = t1149 - t1113;
        // real block of 2
        const V t1272 = t1197 + t1185;
        const V t1273 = t1197 - t1185;
        // real block of 2
        const V t1274 = t1125 - t1173;
        const V t1275 = t1173 + t1125;
        // real block of 7, multiplier 2
        const V t1276 = t1264 + t1274;
        const V t1277 = t1264 - t1274;
        const V t1278 = t1272 + t1266;
        const V t1279 = t1272 - t1266;
        const V t1280 = t1270 + t1268;
        const V t1281 = t1270 - t1268;
        const V t1282 = t1276 + t1278;
        const V t1283 = t1282 + t1280;
        const V t1284 = t1283 + t1262;
        const V t1285 = c[2] * t1276;
        const V t1286 = t1262 - t1285;
        const V t1287 = c[0] * t1278;
        const V t1288 = t1286 - t1287;
        const V t1289 = c[1] * t1280;
        const V t1290 = t1288 + t1289;
        const V t1291 = c[5] * t1277;
        const V t1292 = c[3] * t1279;
        const V t1293 = c[4] * t1281;
        const V t1294 = t1291 + t1292;
        const V t1295 = t1294 + t1293;
        const V t1296 = c[0] * t1276;
        const V t1297 = t1262 - t1296;
        const V t1298 = c[1] * t1278;
        const V t1299 = t1297 + t1298;
        const V t1300 = c[2] * t1280;
        const V t1301 = t1299 - t1300;
        const V t1302 = c[3] * t1277;
        const V t1303 = c[4] * t1279;
        const V t1304 = c[5] * t1281;
        const V t1305 = t1302 + t1303;
        const V t1306 = t1305 - t1304;
        const V t1307 = c[1] * t1276;
        const V t1308 = c[2] * t1278;
        const V t1309 = t1307 - t1308;
        const V t1310 = c[0] * t1280;
        const V t1311 = t1309 - t1310;
        const V t1312 = t1311 + t1262;
        const V t1313 = c[4] * t1277;
        const V t1314 = c[5] * t1279;
        const V t1315 = c[3] * t1281;
        const V t1316 = t1313 - t1314;
        const V t1317 = t1316 - t1315;
        // real block of 7, multiplier 2
        const V t1318 = t1265 - t1275;
        const V t1319 = t1265 + t1275;
        const V t1320 = t1273 + t1267;
        const V t1321 = t1273 - t1267;
        const V t1322 = t1271 + t1269;
        const V t1323 = t1271 - t1269;
        const V t1324 = t1318 + t1320;
        const V t1325 = t1324 + t1322;
        const V t1326 = t1325 + t1263;
        const V t1327 = c[2] * t1318;
        const V t1328 = t1263 - t1327;
        const V t1329 = c[0] * t1320;
        const V t1330 = t1328 - t1329;
        const V t1331 = c[1] * t1322;
        const V t1332 = t1330 + t1331;
        const V t1333 = c[5] * t1319;
        const V t1334 = c[3] * t1321;
        const V t1335 = c[4] * t1323;
        const V t1336 = t1333 + t1334;
        const V t1337 = t1336 + t1335;
        const V t1338 = c[0] * t1318;
        const V t1339 = t1263 - t1338;
        const V t1340 = c[1] * t1320;
        const V t1341 = t1339 + t1340;
        const V t1342 = c[2] * t1322;
        const V t1343 = t1341 - t1342;
        const V t1344 = c[3] * t1319;
        const V t1345 = c[4] * t1321;
        const V t1346 = c[5] * t1323;
        const V t1347 = t1344 + t1345;
        const V t1348 = t1347 - t1346;
        const V t1349 = c[1] * t1318;
        const V t1350 = c[2] * t1320;
        const V t1351 = t1349 - t1350;
        const V t1352 = c[0] * t1322;
        const V t1353 = t1351 - t1352;
        const V t1354 = t1353 + t1263;
        const V t1355 = c[4] * t1319;
        const V t1356 = c[5] * t1321;
        const V t1357 = c[3] * t1323;
        const V t1358 = t1355 - t1356;
        const V t1359 = t1358 - t1357;
        // real block of 7
        const V t1360 = t1176 - t1140;
        const V t1361 = t1140 + t1176;
        const V t1362 = t1200 - t1248;
        const V t1363 = t1200 + t1248;
        const V t1364 = t1152 + t1164;
        const V t1365 = t1164 - t1152;
        const V t1366 = t1360 + t1362;
        const V t1367 = t1366 - t1364;
        const V t1368 = t1367 + t1104;
        const V t1369 = c[1] * t1360;
        const V t1370 = c[2] * t1362;
        const V t1371 = t1369 - t1370;
        const V t1372 = c[0] * t1364;
        const V t1373 = t1371 + t1372;
        const V t1374 = t1373 + t1104;
        const V t1375 = c[4] * t1361;
        const V t1376 = c[5] * t1363;
        const V t1377 = c[3] * t1365;
        const V t1378 = t1375 + t1376;
        const V t1379 = t1378 + t1377;
        const V t1380 = c[2] * t1360;
        const V t1381 = t1104 - t1380;
        const V t1382 = c[0] * t1362;
        const V t1383 = t1381 - t1382;
        const V t1384 = c[1] * t1364;
        const V t1385 = t1383 - t1384;
        const V t1386 = c[5] * t1361;
        const V t1387 = c[3] * t1363;
        const V t1388 = c[4] * t1365;
        const V t1389 = t1386 - t1387;
        const V t1390 = t1389 - t1388;
        const V t1391 = c[0] * t1360;
        const V t1392 = t1104 - t1391;
        const V t1393 = c[1] * t1362;
        const V t1394 = t1392 + t1393;
        const V t1395 = c[2] * t1364;
        const V t1396 = t1394 + t1395;
        const V t1397 = c[3] * t1361;
        const V t1398 = c[4] * t1363;
        const V t1399 = c[5] * t1365;
        const V t1400 = t1397 + t1399;
        const V t1401 = t1400 - t1398;
        // real block of 7
        const V t1402 = t1260 - t1188;
        const V t1403 = t1188 + t1260;
        const V t1404 = t1224 + t1128;
        const V t1405 = t1224 - t1128;
        const V t1406 = t1236 - t1212;
        const V t1407 = t1212 + t1236;
        const V t1408 = t1402 + t1404;
        const V t1409 = t1408 + t1406;
        const V t1410 = t1409 + t1116;
        const V t1411 = c[1] * t1402;
        const V t1412 = c[2] * t1404;
        const V t1413 = t1411 - t1412;
        const V t1414 = c[0] * t1406;
        const V t1415 = t1413 - t1414;
        const V t1416 = t1415 + t1116;
        const V t1417 = c[4] * t1403;
        const V t1418 = c[5] * t1405;
        const V t1419 = c[3] * t1407;
        const V t1420 = t1417 + t1418;
        const V t1421 = t1420 - t1419;
        const V t1422 = c[2] * t1402;
        const V t1423 = t1116 - t1422;
        const V t1424 = c[0] * t1404;
        const V t1425 = t1423 - t1424;
        const V t1426 = c[1] * t1406;
        const V t1427 = t1425 + t1426;
        const V t1428 = c[5] * t1403;
        const V t1429 = c[3] * t1405;
        const V t1430 = c[4] * t1407;
        const V t1431 = t1428 + t1430;
        const V t1432 = t1431 - t1429;
        const V t1433 = c[0] * t1402;
        const V t1434 = t1116 - t1433;
        const V t1435 = c[1] * t1404;
        const V t1436 = t1434 + t1435;
        const V t1437 = c[2] * t1406;
        const V t1438 = t1436 - t1437;
        const V t1439 = c[3] * t1403;
        const V t1440 = c[4] * t1405;
        const V t1441 = c[5] * t1407;
        const V t1442 = t1439 - t1440;
        const V t1443 = t1442 - t1441;
        // skew block of 14
        const V t1444 = c[2] * t1443;
        const V t1445 = c[5] * t1438;
        const V t1446 = t1445 - t1444;
        const V t1447 = c[2] * t1438;
        const V t1448 = c[5] * t1443;
        const V t1449 = t1448 + t1447;
        // complex block of 2
        const V t1450 = t1396 + t1446;
        const V t1451 = t1401 + t1449;
        const V t1452 = t1396 - t1446;
        const V t1453 = t1449 - t1401;
        // skew block of 14
        const V t1454 = c[1] * t1432;
        const V t1455 = c[4] * t1427;
        const V t1456 = t1455 - t1454;
        const V t1457 = c[1] * t1427;
        const V t1458 = c[4] * t1432;
        const V t1459 = t1458 + t1457;
        // complex block of 2
        const V t1460 = t1385 + t1456;
        const V t1461 = t1390 + t1459;
        const V t1462 = t1385 - t1456;
        const V t1463 = t1459 - t1390;
        // skew block of 14
        const V t1464 = c[0] * t1421;
        const V t1465 = c[3] * t1416;
        const V t1466 = t1465 - t1464;
        const V t1467 = c[0] * t1416;
        const V t1468 = c[3] * t1421;
        const V t1469 = t1468 + t1467;
        // complex block of 2
        const V t1470 = t1374 + t1466;
        const V t1471 = t1379 + t1469;
        const V t1472 = t1374 - t1466;
        const V t1473 = t1469 - t1379;
        // spectrum block of 29
        const V t1474 = c[32] * t1284;
        const V t1475 = t1092 - t1474;
        const V t1476 = c[90] * t1451;
        const V t1477 = c[91] * t1450;
        const V t1478 = t1477 + t1476;
        const V t1479 = c[90] * t1450;
        const V t1480 = c[91] * t1451;
        const V t1481 = t1480 - t1479;
        const V t1482 = c[92] * t1359;
        const V t1483 = c[93] * t1354;
        const V t1484 = t1483 + t1482;
        const V t1485 = c[92] * t1354;
        const V t1486 = c[93] * t1359;
        const V t1487 = t1485 - t1486;
        const V t1488 = c[94] * t1461;
        const V t1489 = c[95] * t1460;
        const V t1490 = t1489 - t1488;
        const V t1491 = c[94] * t1460;
        const V t1492 = c[95] * t1461;
        const V t1493 = t1492 + t1491;
        const V t1494 = c[96] * t1295;
        const V t1495 = c[97] * t1290;
        const V t1496 = t1495 + t1494;
        const V t1497 = c[96] * t1290;
        const V t1498 = c[97] * t1295;
        const V t1499 = t1497 - t1498;
        const V t1500 = c[98] * t1471;
        const V t1501 = c[99] * t1470;
        const V t1502 = t1501 + t1500;
        const V t1503 = c[98] * t1470;
        const V t1504 = c[99] * t1471;
        const V t1505 = t1504 - t1503;
        const V t1506 = c[100] * t1348;
        const V t1507 = c[101] * t1343;
        const V t1508 = t1507 + t1506;
        const V t1509 = c[100] * t1343;
        const V t1510 = c[101] * t1348;
        const V t1511 = t1509 - t1510;
        const V t1512 = c[6] * t1410;
        const V t1513 = c[7] * t1368;
        const V t1514 = t1513 + t1512;
        const V t1515 = c[6] * t1368;
        const V t1516 = c[7] * t1410;
        const V t1517 = t1515 - t1516;
        const V t1518 = c[102] * t1306;
        const V t1519 = c[103] * t1301;
        const V t1520 = t1519 + t1518;
        const V t1521 = c[102] * t1301;
        const V t1522 = c[103] * t1306;
        const V t1523 = t1521 - t1522;
        const V t1524 = c[104] * t1473;
        const V t1525 = c[105] * t1472;
        const V t1526 = t1525 + t1524;
        const V t1527 = c[104] * t1472;
        const V t1528 = c[105] * t1473;
        const V t1529 = t1528 - t1527;
        const V t1530 = c[106] * t1337;
        const V t1531 = c[107] * t1332;
        const V t1532 = t1531 + t1530;
        const V t1533 = c[106] * t1332;
        const V t1534 = c[107] * t1337;
        const V t1535 = t1534 - t1533;
        const V t1536 = c[108] * t1463;
        const V t1537 = c[109] * t1462;
        const V t1538 = t1536 - t1537;
        const V t1539 = c[108] * t1462;
        const V t1540 = c[109] * t1463;
        const V t1541 = t1540 + t1539;
        const V t1542 = c[110] * t1317;
        const V t1543 = c[111] * t1312;
        const V t1544 = t1543 - t1542;
        const V t1545 = c[110] * t1312;
        const V t1546 = c[111] * t1317;
        const V t1547 = t1546 + t1545;
        const V t1548 = c[112] * t1453;
        const V t1549 = c[113] * t1452;
        const V t1550 = t1549 + t1548;
        const V t1551 = c[112] * t1452;
        const V t1552 = c[113] * t1453;
        const V t1553 = t1551 - t1552;
        const V t1554 = c[33] * t1326;
        // spectrum block of 7, multiplier 4
        const V t1555 = t1496 - t1520;
        const V t1556 = t1555 + t1544;
        const V t1557 = t1556 + t1475;
        const V t1558 = c[1] * t1496;
        const V t1559 = c[2] * t1520;
        const V t1560 = t1558 + t1559;
        const V t1561 = c[0] * t1544;
        const V t1562 = t1560 - t1561;
        const V t1563 = t1562 + t1475;
        const V t1564 = c[4] * t1499;
        const V t1565 = c[5] * t1523;
        const V t1566 = t1564 + t1565;
        const V t1567 = c[3] * t1547;
        const V t1568 = t1566 + t1567;
        const V t1569 = t1563 - t1568;
        const V t1570 = t1563 + t1568;
        const V t1571 = c[2] * t1496;
        const V t1572 = t1475 - t1571;
        const V t1573 = c[0] * t1520;
        const V t1574 = t1572 + t1573;
        const V t1575 = c[1] * t1544;
        const V t1576 = t1574 + t1575;
        const V t1577 = c[5] * t1499;
        const V t1578 = c[3] * t1523;
        const V t1579 = t1577 - t1578;
        const V t1580 = c[4] * t1547;
        const V t1581 = t1579 - t1580;
        const V t1582 = t1576 - t1581;
        const V t1583 = t1576 + t1581;
        const V t1584 = c[0] * t1496;
        const V t1585 = t1475 - t1584;
        const V t1586 = c[1] * t1520;
        const V t1587 = t1585 - t1586;
        const V t1588 = c[2] * t1544;
        const V t1589 = t1587 - t1588;
        const V t1590 = c[3] * t1499;
        const V t1591 = c[4] * t1523;
        const V t1592 = t1590 - t1591;
        const V t1593 = c[5] * t1547;
        const V t1594 = t1592 + t1593;
        const V t1595 = t1589 - t1594;
        const V t1596 = t1589 + t1594;
        // complex block of 7, multiplier 4
        const V t1597 = t1541 - t1493;
        const V t1598 = t1538 + t1490;
        const V t1599 = t1541 + t1493;
        const V t1600 = t1538 - t1490;
        const V t1601 = t1481 + t1553;
        const V t1602 = t1550 - t1478;
        const V t1603 = t1553 - t1481;
        const V t1604 = t1478 + t1550;
        const V t1605 = t1505 + t1529;
        const V t1606 = t1502 + t1526;
        const V t1607 = t1529 - t1505;
        const V t1608 = t1526 - t1502;
        const V t1609 = t1597 - t1601;
        const V t1610 = t1609 - t1605;
        const V t1611 = t1598 + t1602;
        const V t1612 = t1611 - t1606;
        const V t1613 = t1610 + t1517;
        const V t1614 = t1612 + t1514;
        const V t1615 = c[1] * t1597;
        const V t1616 = c[2] * t1601;
        const V t1617 = t1615 + t1616;
        const V t1618 = c[0] * t1605;
        const V t1619 = t1617 + t1618;
        const V t1620 = t1619 + t1517;
        const V t1621 = c[1] * t1598;
        const V t1622 = c[2] * t1602;
        const V t1623 = t1621 - t1622;
        const V t1624 = c[0] * t1606;
        const V t1625 = t1623 + t1624;
        const V t1626 = t1625 + t1514;
        const V t1627 = c[4] * t1599;
        const V t1628 = c[5] * t1603;
        const V t1629 = t1627 - t1628;
        const V t1630 = c[3] * t1607;
        const V t1631 = t1629 - t1630;
        const V t1632 = c[4] * t1600;
        const V t1633 = c[5] * t1604;
        const V t1634 = t1632 + t1633;
        const V t1635 = c[3] * t1608;
        const V t1636 = t1634 - t1635;
        const V t1637 = t1620 + t1636;
        const V t1638 = t1626 - t1631;
        const V t1639 = t1620 - t1636;
        const V t1640 = t1626 + t1631;
        const V t1641 = c[2] * t1597;
        const V t1642 = t1517 - t1641;
        const V t1643 = c[0] * t1601;
        const V t1644 = t1642 + t1643;
        const V t1645 = c[1] * t1605;
        const V t1646 = t1644 - t1645;
        const V t1647 = c[2] * t1598;
        const V t1648 = t1514 - t1647;
        const V t1649 = c[0] * t1602;
        const V t1650 = t1648 - t1649;
        const V t1651 = c[1] * t1606;
        const V t1652 = t1650 - t1651;
        const V t1653 = c[5] * t1599;
        const V t1654 = c[3] * t1603;
        const V t1655 = t1653 + t1654;
        const V t1656 = c[4] * t1607;
        const V t1657 = t1655 + t1656;
        const V t1658 = c[5] * t1600;
        const V t1659 = c[3] * t1604;
        const V t1660 = t1658 - t1659;
        const V t1661 = c[4] * t1608;
        const V t1662 = t1660 + t1661;
        const V t1663 = t1646 + t1662;
        const V t1664 = t1652 - t1657;
        const V t1665 = t1646 - t1662;
        const V t1666 = t1652 + t1657;
        const V t1667 = c[0] * t1597;
        const V t1668 = t1517 - t1667;
        const V t1669 = c[1] * t1601;
        const V t1670 = t1668 - t1669;
        const V t1671 = c[2] * t1605;
        const V t1672 = t1670 + t1671;
        const V t1673 = c[0] * t1598;
        const V t1674 = t1514 - t1673;
        const V t1675 = c[1] * t1602;
        const V t1676 = t1674 + t1675;
        const V t1677 = c[2] * t1606;
        const V t1678 = t1676 + t1677;
        const V t1679 = c[3] * t1599;
        const V t1680 = c[4] * t1603;
        const V t1681 = t1679 + t1680;
        const V t1682 = c[5] * t1607;
        const V t1683 = t1681 - t1682;
        const V t1684 = c[3] * t1600;
        const V t1685 = c[4] * t1604;
        const V t1686 = t1684 - t1685;
        const V t1687 = c[5] * t1608;
        const V t1688 = t1686 - t1687;
        const V t1689 = t1672 + t1688;
        const V t1690 = t1678 - t1683;
        const V t1691 = t1672 - t1688;
        const V t1692 = t1678 + t1683;
        // spectrum block of 7, multiplier 4
        const V t1693 = t1532 + t1508;
        const V t1694 = t1693 + t1484;
        const V t1695 = t1694 + t1554;
        const V t1696 = c[1] * t1532;
        const V t1697 = c[2] * t1508;
        const V t1698 = t1696 - t1697;
        const V t1699 = c[0] * t1484;
        const V t1700 = t1698 - t1699;
        const V t1701 = t1700 + t1554;
        const V t1702 = c[4] * t1535;
        const V t1703 = c[5] * t1511;
        const V t1704 = t1702 + t1703;
        const V t1705 = c[3] * t1487;
        const V t1706 = t1704 + t1705;
        const V t1707 = t1701 + t1706;
        const V t1708 = t1701 - t1706;
        const V t1709 = c[2] * t1532;
        const V t1710 = t1554 - t1709;
        const V t1711 = c[0] * t1508;
        const V t1712 = t1710 - t1711;
        const V t1713 = c[1] * t1484;
        const V t1714 = t1712 + t1713;
        const V t1715 = c[5] * t1535;
        const V t1716 = c[3] * t1511;
        const V t1717 = t1716 - t1715;
        const V t1718 = c[4] * t1487;
        const V t1719 = t1717 + t1718;
        const V t1720 = t1714 - t1719;
        const V t1721 = t1714 + t1719;
        const V t1722 = c[0] * t1532;
        const V t1723 = t1554 - t1722;
        const V t1724 = c[1] * t1508;
        const V t1725 = t1723 + t1724;
        const V t1726 = c[2] * t1484;
        const V t1727 = t1725 - t1726;
        const V t1728 = c[3] * t1535;
        const V t1729 = c[4] * t1511;
        const V t1730 = t1729 - t1728;
        const V t1731 = c[5] * t1487;
        const V t1732 = t1730 - t1731;
        const V t1733 = t1727 - t1732;
        const V t1734 = t1727 + t1732;
        // spectrum block of 2
        const V t1735 = t1557 + t1695;
        const V t1736 = t1557 - t1695;
        // spectrum block of 2
        const V t1737 = t1735 + t1614;
        const V t1738 = t1735 - t1614;
        // spectrum block of 2
        const V t1739 = t1736 + t1613;
        const V t1740 = t1736 - t1613;
        // spectrum block of 2
        const V t1741 = t1596 + t1734;
        const V t1742 = t1596 - t1734;
        // spectrum block of 2
        const V t1743 = t1741 + t1692;
        const V t1744 = t1741 - t1692;
        // spectrum block of 2
        const V t1745 = t1742 + t1691;
        const V t1746 = t1742 - t1691;
        // spectrum block of 2
        const V t1747 = t1569 + t1707;
        const V t1748 = t1569 - t1707;
        // spectrum block of 2
        const V t1749 = t1747 + t1638;
        const V t1750 = t1747 - t1638;
        // spectrum block of 2
        const V t1751 = t1748 + t1637;
        const V t1752 = t1748 - t1637;
        // spectrum block of 2
        const V t1753 = t1583 + t1721;
        const V t1754 = t1583 - t1721;
        // spectrum block of 2
        const V t1755 = t1753 + t1666;
        const V t1756 = t1753 - t1666;
        // spectrum block of 2
        const V t1757 = t1754 + t1665;
        const V t1758 = t1754 - t1665;
        // spectrum block of 2
        const V t1759 = t1582 + t1720;
        const V t1760 = t1582 - t1720;
        // spectrum block of 2
        const V t1761 = t1759 + t1664;
        const V t1762 = t1759 - t1664;
        // spectrum block of 2
        const V t1763 = t1760 + t1663;
        const V t1764 = t1760 - t1663;
        // spectrum block of 2
        const V t1765 = t1570 + t1708;
        const V t1766 = t1570 - t1708;
        // spectrum block of 2
        const V t1767 = t1765 + t1640;
        const V t1768 = t1765 - t1640;
        // spectrum block of 2
        const V t1769 = t1766 + t1639;
        const V t1770 = t1766 - t1639;
        // spectrum block of 2
        const V t1771 = t1595 + t1733;
        const V t1772 = t1595 - t1733;
        // spectrum block of 2
        const V t1773 = t1771 + t1690;
        const V t1774 = t1771 - t1690;
        // spectrum block of 2
        const V t1775 = t1772 + t1689;
        const V t1776 = t1772 - t1689;
        // spectrum block of 29
        const V t1777 = t1092 + t1284;
        // real block of 2
        const V t1778 = t1254 + t1122;
        const V t1779 = t1254 - t1122;
        // real block of 2
        const V t1780 = t1218 + t1146;
        const V t1781 = t1218 - t1146;
        // real block of 2
        const V t1782 = t1110 + t1134;
        const V t1783 = t1134 - t1110;
        // real block of 2
        const V t1784 = t1194 + t1098;
        const V t1785 = t1194 - t1098;
        // real block of 2
        const V t1786 = t1242 - t1206;
        const V t1787 = t1206 + t1242;
        // real block of 2
        const V t1788 = t1158 + t1170;
        const V t1789 = t1158 - t1170;
        // real block of 2
        const V t1790 = t1182 + t1230;
        const V t1791 = t1182 - t1230;
        // real block of 7, multiplier 2
        const V t1792 = t1780 + t1790;
        const V t1793 = t1780 - t1790;
        const V t1794 = t1788 - t1782;
        const V t1795 = t1788 + t1782;
        const V t1796 = t1786 + t1784;
        const V t1797 = t1786 - t1784;
        const V t1798 = t1792 + t1794;
        const V t1799 = t1798 + t1796;
        const V t1800 = t1799 + t1778;
        const V t1801 = c[2] * t1792;
        const V t1802 = t1778 - t1801;
        const V t1803 = c[0] * t1794;
        const V t1804 = t1802 - t1803;
        const V t1805 = c[1] * t1796;
        const V t1806 = t1804 + t1805;
        const V t1807 = c[5] * t1793;
        const V t1808 = c[3] * t1795;
        const V t1809 = c[4] * t1797;
        const V t1810 = t1807 + t1808;
        const V t1811 = t1810 + t1809;
        const V t1812 = c[0] * t1792;
        const V t1813 = t1778 - t1812;
        const V t1814 = c[1] * t1794;
        const V t1815 = t1813 + t1814;
        const V t1816 = c[2] * t1796;
        const V t1817 = t1815 - t1816;
        const V t1818 = c[3] * t1793;
        const V t1819 = c[4] * t1795;
        const V t1820 = c[5] * t1797;
        const V t1821 = t1818 + t1819;
        const V t1822 = t1821 - t1820;
        const V t1823 = c[1] * t1792;
        const V t1824 = c[2] * t1794;
        const V t1825 = t1823 - t1824;
        const V t1826 = c[0] * t1796;
        const V t1827 = t1825 - t1826;
        const V t1828 = t1827 + t1778;
        const V t1829 = c[4] * t1793;
        const V t1830 = c[5] * t1795;
        const V t1831 = c[3] * t1797;
        const V t1832 = t1829 - t1830;
        const V t1833 = t1832 - t1831;
        // real block of 7, multiplier 2
        const V t1834 = t1781 + t1791;
        const V t1835 = t1781 - t1791;
        const V t1836 = t1789 + t1783;
        const V t1837 = t1789 - t1783;
        const V t1838 = t1785 - t1787;
        const V t1839 = t1787 + t1785;
        const V t1840 = t1834 + t1836;
        const V t1841 = t1840 + t1838;
        const V t1842 = t1841 + t1779;
        const V t1843 = c[2] * t1834;
        const V t1844 = t1779 - t1843;
        const V t1845 = c[0] * t1836;
        const V t1846 = t1844 - t1845;
        const V t1847 = c[1] * t1838;
        const V t1848 = t1846 + t1847;
        const V t1849 = c[5] * t1835;
        const V t1850 = c[3] * t1837;
        const V t1851 = c[4] * t1839;
        const V t1852 = t1851 - t1849;
        const V t1853 = t1852 - t1850;
        const V t1854 = c[0] * t1834;
        const V t1855 = t1779 - t1854;
        const V t1856 = c[1] * t1836;
        const V t1857 = t1855 + t1856;
        const V t1858 = c[2] * t1838;
        const V t1859 = t1857 - t1858;
        const V t1860 = c[3] * t1835;
        const V t1861 = c[4] * t1837;
        const V t1862 = c[5] * t1839;
        const V t1863 = t1860 + t1861;
        const V t1864 = t1863 + t1862;
        const V t1865 = c[1] * t1834;
        const V t1866 = c[2] * t1836;
        const V t1867 = t1865 - t1866;
        const V t1868 = c[0] * t1838;
        const V t1869 = t1867 - t1868;
        const V t1870 = t1869 + t1779;
        const V t1871 = c[4] * t1835;
        const V t1872 = c[5] * t1837;
        const V t1873 = c[3] * t1839;
        const V t1874 = t1871 + t1873;
        const V t1875 = t1874 - t1872;
        // real block of 7
        const V t1876 = t1215 + t1179;
        const V t1877 = t1179 - t1215;
        const V t1878 = t1155 + t1107;
        const V t1879 = t1107 - t1155;
        const V t1880 = t1203 + t1191;
        const V t1881 = t1191 - t1203;
        const V t1882 = t1876 + t1878;
        const V t1883 = t1882 + t1880;
        const V t1884 = t1883 + t1251;
        const V t1885 = c[1] * t1876;
        const V t1886 = t1251 + t1885;
        const V t1887 = c[2] * t1878;
        const V t1888 = t1887 - t1886;
        const V t1889 = c[0] * t1880;
        const V t1890 = t1888 + t1889;
        const V t1891 = c[4] * t1877;
        const V t1892 = c[5] * t1879;
        const V t1893 = c[3] * t1881;
        const V t1894 = t1892 + t1893;
        const V t1895 = t1894 - t1891;
        const V t1896 = c[2] * t1876;
        const V t1897 = c[0] * t1878;
        const V t1898 = t1896 + t1897;
        const V t1899 = c[1] * t1880;
        const V t1900 = t1898 - t1899;
        const V t1901 = t1900 - t1251;
        const V t1902 = c[5] * t1877;
        const V t1903 = c[3] * t1879;
        const V t1904 = c[4] * t1881;
        const V t1905 = t1902 + t1903;
        const V t1906 = t1905 + t1904;
        const V t1907 = c[0] * t1876;
        const V t1908 = c[1] * t1878;
        const V t1909 = t1907 - t1908;
        const V t1910 = c[2] * t1880;
        const V t1911 = t1909 + t1910;
        const V t1912 = t1911 - t1251;
        const V t1913 = c[3] * t1877;
        const V t1914 = c[4] * t1879;
        const V t1915 = c[5] * t1881;
        const V t1916 = t1915 - t1913;
        const V t1917 = t1916 - t1914;
        // real block of 7
        const V t1918 = t1167 + t1095;
        const V t1919 = t1095 - t1167;
        const V t1920 = t1131 - t1227;
        const V t1921 = t1131 + t1227;
        const V t1922 = t1143 - t1119;
        const V t1923 = t1143 + t1119;
        const V t1924 = t1920 - t1918;
        const V t1925 = t1924 + t1922;
        const V t1926 = t1925 + t1239;
        const V t1927 = c[1] * t1918;
        const V t1928 = t1239 - t1927;
        const V t1929 = c[2] * t1920;
        const V t1930 = t1928 - t1929;
        const V t1931 = c[0] * t1922;
        const V t1932 = t1930 - t1931;
        const V t1933 = c[4] * t1919;
        const V t1934 = c[5] * t1921;
        const V t1935 = c[3] * t1923;
        const V t1936 = t1934 + t1935;
        const V t1937 = t1936 - t1933;
        const V t1938 = c[2] * t1918;
        const V t1939 = c[0] * t1920;
        const V t1940 = t1938 - t1939;
        const V t1941 = c[1] * t1922;
        const V t1942 = t1940 + t1941;
        const V t1943 = t1942 + t1239;
        const V t1944 = c[5] * t1919;
        const V t1945 = c[3] * t1921;
        const V t1946 = c[4] * t1923;
        const V t1947 = t1944 + t1945;
        const V t1948 = t1947 + t1946;
        const V t1949 = c[0] * t1918;
        const V t1950 = c[1] * t1920;
        const V t1951 = t1949 + t1950;
        const V t1952 = c[2] * t1922;
        const V t1953 = t1951 - t1952;
        const V t1954 = t1953 + t1239;
        const V t1955 = c[3] * t1919;
        const V t1956 = c[4] * t1921;
        const V t1957 = c[5] * t1923;
        const V t1958 = t1957 - t1955;
        const V t1959 = t1958 - t1956;
        // skew block of 14
        const V t1960 = c[2] * t1959;
        const V t1961 = c[5] * t1954;
        const V t1962 = t1961 - t1960;
        const V t1963 = c[2] * t1954;
        const V t1964 = c[5] * t1959;
        const V t1965 = t1964 + t1963;
        // complex block of 2
        const V t1966 = t1912 + t1962;
        const V t1967 = t1917 + t1965;
        const V t1968 = t1912 - t1962;
        const V t1969 = t1965 - t1917;
        // skew block of 14
        const V t1970 = c[1] * t1948;
        const V t1971 = c[4] * t1943;
        const V t1972 = t1971 + t1970;
        const V t1973 = c[1] * t1943;
        const V t1974 = c[4] * t1948;
        const V t1975 = t1974 - t1973;
        // complex block of 2
        const V t1976 = t1901 + t1972;
        const V t1977 = t1906 + t1975;
        const V t1978 = t1901 - t1972;
        const V t1979 = t1906 - t1975;
        // skew block of 14
        const V t1980 = c[0] * t1937;
        const V t1981 = c[3] * t1932;
        const V t1982 = t1981 - t1980;
        const V t1983 = c[0] * t1932;
        const V t1984 = c[3] * t1937;
        const V t1985 = t1984 + t1983;
        // complex block of 2
        const V t1986 = t1890 + t1982;
        const V t1987 = t1895 + t1985;
        const V t1988 = t1890 - t1982;
        const V t1989 = t1985 - t1895;
        // spectrum block of 29, multiplier 2
        const V t1990 = c[32] * t1800;
        const V t1991 = t1261 + t1990;
        const V t1992 = c[9] * t1967;
        const V t1993 = c[8] * t1966;
        const V t1994 = t1993 + t1992;
        const V t1995 = c[9] * t1966;
        const V t1996 = c[8] * t1967;
        const V t1997 = t1996 - t1995;
        const V t1998 = c[10] * t1875;
        const V t1999 = c[11] * t1870;
        const V t2000 = t1999 + t1998;
        const V t2001 = c[10] * t1870;
        const V t2002 = c[11] * t1875;
        const V t2003 = t2001 - t2002;
        const V t2004 = c[13] * t1977;
        const V t2005 = c[12] * t1976;
        const V t2006 = t2005 + t2004;
        const V t2007 = c[13] * t1976;
        const V t2008 = c[12] * t1977;
        const V t2009 = t2008 - t2007;
        const V t2010 = c[14] * t1811;
        const V t2011 = c[15] * t1806;
        const V t2012 = t2011 - t2010;
        const V t2013 = c[14] * t1806;
        const V t2014 = c[15] * t1811;
        const V t2015 = t2014 + t2013;
        const V t2016 = c[17] * t1987;
        const V t2017 = c[16] * t1986;
        const V t2018 = t2016 - t2017;
        const V t2019 = c[17] * t1986;
        const V t2020 = c[16] * t1987;
        const V t2021 = t2020 + t2019;
        const V t2022 = c[18] * t1864;
        const V t2023 = c[19] * t1859;
        const V t2024 = t2023 - t2022;
        const V t2025 = c[18] * t1859;
        const V t2026 = c[19] * t1864;
        const V t2027 = t2026 + t2025;
        const V t2028 = c[7] * t1926;
        const V t2029 = c[6] * t1884;
        const V t2030 = t2029 + t2028;
        const V t2031 = c[7] * t1884;
        const V t2032 = c[6] * t1926;
        const V t2033 = t2031 - t2032;
        const V t2034 = c[20] * t1822;
        const V t2035 = c[21] * t1817;
        const V t2036 = t2035 - t2034;
        const V t2037 = c[20] * t1817;
        const V t2038 = c[21] * t1822;
        const V t2039 = t2038 + t2037;
        const V t2040 = c[23] * t1989;
        const V t2041 = c[22] * t1988;
        const V t2042 = t2041 + t2040;
        const V t2043 = c[23] * t1988;
        const V t2044 = c[22] * t1989;
        const V t2045 = t2043 - t2044;
        const V t2046 = c[24] * t1853;
        const V t2047 = c[25] * t1848;
        const V t2048 = t2047 + t2046;
        const V t2049 = c[24] * t1848;
        const V t2050 = c[25] * t1853;
        const V t2051 = t2050 - t2049;
        const V t2052 = c[27] * t1979;
        const V t2053 = c[26] * t1978;
        const V t2054 = t2053 - t2052;
        const V t2055 = c[27] * t1978;
        const V t2056 = c[26] * t1979;
        const V t2057 = t2056 + t2055;
        const V t2058 = c[28] * t1833;
        const V t2059 = c[29] * t1828;
        const V t2060 = t2059 + t2058;
        const V t2061 = c[28] * t1828;
        const V t2062 = c[29] * t1833;
        const V t2063 = t2062 - t2061;
        const V t2064 = c[31] * t1969;
        const V t2065 = c[30] * t1968;
        const V t2066 = t2065 + t2064;
        const V t2067 = c[31] * t1968;
        const V t2068 = c[30] * t1969;
        const V t2069 = t2068 - t2067;
        const V t2070 = c[33] * t1842;
        // spectrum block of 7, multiplier 4
        const V t2071 = t2012 + t2036;
        const V t2072 = t2071 + t2060;
        const V t2073 = t2072 - t1991;
        const V t2074 = c[1] * t2012;
        const V t2075 = c[2] * t2036;
        const V t2076 = t2074 - t2075;
        const V t2077 = c[0] * t2060;
        const V t2078 = t2076 - t2077;
        const V t2079 = t2078 - t1991;
        const V t2080 = c[4] * t2015;
        const V t2081 = c[5] * t2039;
        const V t2082 = t2081 - t2080;
        const V t2083 = c[3] * t2063;
        const V t2084 = t2082 + t2083;
        const V t2085 = t2079 - t2084;
        const V t2086 = t2079 + t2084;
        const V t2087 = c[2] * t2012;
        const V t2088 = t1991 + t2087;
        const V t2089 = c[0] * t2036;
        const V t2090 = t2088 + t2089;
        const V t2091 = c[1] * t2060;
        const V t2092 = t2091 - t2090;
        const V t2093 = c[5] * t2015;
        const V t2094 = c[3] * t2039;
        const V t2095 = t2093 + t2094;
        const V t2096 = c[4] * t2063;
        const V t2097 = t2095 + t2096;
        const V t2098 = t2092 + t2097;
        const V t2099 = t2092 - t2097;
        const V t2100 = c[0] * t2012;
        const V t2101 = t1991 + t2100;
        const V t2102 = c[1] * t2036;
        const V t2103 = t2102 - t2101;
        const V t2104 = c[2] * t2060;
        const V t2105 = t2103 - t2104;
        const V t2106 = c[3] * t2015;
        const V t2107 = c[4] * t2039;
        const V t2108 = t2106 + t2107;
        const V t2109 = c[5] * t2063;
        const V t2110 = t2109 - t2108;
        const V t2111 = t2105 - t2110;
        const V t2112 = t2105 + t2110;
        // complex block of 7, multiplier 4
        const V t2113 = t2009 - t2057;
        const V t2114 = t2054 + t2006;
        const V t2115 = t2057 + t2009;
        const V t2116 = t2054 - t2006;
        const V t2117 = t1997 + t2069;
        const V t2118 = t1994 + t2066;
        const V t2119 = t2069 - t1997;
        const V t2120 = t2066 - t1994;
        const V t2121 = t2021 + t2045;
        const V t2122 = t2018 + t2042;
        const V t2123 = t2045 - t2021;
        const V t2124 = t2018 - t2042;
        const V t2125 = t2113 - t2117;
        const V t2126 = t2125 - t2121;
        const V t2127 = t2114 - t2118;
        const V t2128 = t2127 + t2122;
        const V t2129 = t2126 + t2033;
        const V t2130 = t2128 - t2030;
        const V t2131 = c[1] * t2113;
        const V t2132 = c[2] * t2117;
        const V t2133 = t2131 + t2132;
        const V t2134 = c[0] * t2121;
        const V t2135 = t2133 + t2134;
        const V t2136 = t2135 + t2033;
        const V t2137 = c[1] * t2114;
        const V t2138 = c[2] * t2118;
        const V t2139 = t2137 + t2138;
        const V t2140 = c[0] * t2122;
        const V t2141 = t2139 - t2140;
        const V t2142 = t2141 - t2030;
        const V t2143 = c[4] * t2115;
        const V t2144 = c[5] * t2119;
        const V t2145 = t2143 + t2144;
        const V t2146 = c[3] * t2123;
        const V t2147 = t2145 + t2146;
        const V t2148 = c[4] * t2116;
        const V t2149 = c[5] * t2120;
        const V t2150 = t2148 - t2149;
        const V t2151 = c[3] * t2124;
        const V t2152 = t2150 - t2151;
        const V t2153 = t2136 + t2152;
        const V t2154 = t2142 + t2147;
        const V t2155 = t2136 - t2152;
        const V t2156 = t2142 - t2147;
        const V t2157 = c[2] * t2113;
        const V t2158 = t2033 - t2157;
        const V t2159 = c[0] * t2117;
        const V t2160 = t2158 + t2159;
        const V t2161 = c[1] * t2121;
        const V t2162 = t2160 - t2161;
        const V t2163 = c[2] * t2114;
        const V t2164 = t2030 + t2163;
        const V t2165 = c[0] * t2118;
        const V t2166 = t2165 - t2164;
        const V t2167 = c[1] * t2122;
        const V t2168 = t2166 + t2167;
        const V t2169 = c[5] * t2115;
        const V t2170 = c[3] * t2119;
        const V t2171 = t2170 - t2169;
        const V t2172 = c[4] * t2123;
        const V t2173 = t2171 + t2172;
        const V t2174 = c[5] * t2116;
        const V t2175 = c[3] * t2120;
        const V t2176 = t2174 + t2175;
        const V t2177 = c[4] * t2124;
        const V t2178 = t2176 + t2177;
        const V t2179 = t2162 + t2178;
        const V t2180 = t2168 - t2173;
        const V t2181 = t2162 - t2178;
        const V t2182 = t2168 + t2173;
        const V t2183 = c[0] * t2113;
        const V t2184 = t2033 - t2183;
        const V t2185 = c[1] * t2117;
        const V t2186 = t2184 - t2185;
        const V t2187 = c[2] * t2121;
        const V t2188 = t2186 + t2187;
        const V t2189 = c[0] * t2114;
        const V t2190 = t2030 + t2189;
        const V t2191 = c[1] * t2118;
        const V t2192 = t2190 + t2191;
        const V t2193 = c[2] * t2122;
        const V t2194 = t2192 + t2193;
        const V t2195 = c[3] * t2115;
        const V t2196 = c[4] * t2119;
        const V t2197 = t2196 - t2195;
        const V t2198 = c[5] * t2123;
        const V t2199 = t2197 - t2198;
        const V t2200 = c[3] * t2116;
        const V t2201 = c[4] * t2120;
        const V t2202 = t2200 + t2201;
        const V t2203 = c[5] * t2124;
        const V t2204 = t2202 - t2203;
        const V t2205 = t2188 + t2204;
        const V t2206 = t2194 + t2199;
        const V t2207 = t2188 - t2204;
        const V t2208 = t2199 - t2194;
        // spectrum block of 7, multiplier 4
        const V t2209 = t2024 - t2048;
        const V t2210 = t2209 + t2000;
        const V t2211 = t2210 - t2070;
        const V t2212 = c[1] * t2048;
        const V t2213 = t2070 + t2212;
        const V t2214 = c[2] * t2024;
        const V t2215 = t2213 + t2214;
        const V t2216 = c[0] * t2000;
        const V t2217 = t2215 + t2216;
        const V t2218 = c[4] * t2051;
        const V t2219 = c[5] * t2027;
        const V t2220 = t2219 - t2218;
        const V t2221 = c[3] * t2003;
        const V t2222 = t2220 - t2221;
        const V t2223 = t2217 + t2222;
        const V t2224 = t2222 - t2217;
        const V t2225 = c[2] * t2048;
        const V t2226 = c[0] * t2024;
        const V t2227 = t2225 - t2226;
        const V t2228 = c[1] * t2000;
        const V t2229 = t2227 + t2228;
        const V t2230 = t2229 - t2070;
        const V t2231 = c[5] * t2051;
        const V t2232 = c[3] * t2027;
        const V t2233 = t2231 + t2232;
        const V t2234 = c[4] * t2003;
        const V t2235 = t2234 - t2233;
        const V t2236 = t2230 - t2235;
        const V t2237 = t2230 + t2235;
        const V t2238 = c[0] * t2048;
        const V t2239 = c[1] * t2024;
        const V t2240 = t2238 + t2239;
        const V t2241 = c[2] * t2000;
        const V t2242 = t2240 - t2241;
        const V t2243 = t2242 - t2070;
        const V t2244 = c[3] * t2051;
        const V t2245 = c[4] * t2027;
        const V t2246 = t2244 + t2245;
        const V t2247 = c[5] * t2003;
        const V t2248 = t2246 + t2247;
        const V t2249 = t2243 + t2248;
        const V t2250 = t2243 - t2248;
        // spectrum block of 2
        const V t2251 = t2073 + t2211;
        const V t2252 = t2073 - t2211;
        // spectrum block of 2
        const V t2253 = t2251 + t2130;
        const V t2254 = t2251 - t2130;
        // spectrum block of 2
        const V t2255 = t2252 + t2129;
        const V t2256 = t2252 - t2129;
        // spectrum block of 2
        const V t2257 = t2112 + t2250;
        const V t2258 = t2112 - t2250;
        // spectrum block of 2
        const V t2259 = t2257 + t2208;
        const V t2260 = t2257 - t2208;
        // spectrum block of 2
        const V t2261 = t2258 + t2207;
        const V t2262 = t2258 - t2207;
        // spectrum block of 2
        const V t2263 = t2085 - t2223;
        const V t2264 = t2085 + t2223;
        // spectrum block of 2
        const V t2265 = t2263 + t2154;
        const V t2266 = t2263 - t2154;
        // spectrum block of 2
        const V t2267 = t2264 + t2153;
        const V t2268 = t2264 - t2153;
        // spectrum block of 2
        const V t2269 = t2099 + t2237;
        const V t2270 = t2099 - t2237;
        // spectrum block of 2
        const V t2271 = t2269 + t2182;
        const V t2272 = t2269 - t2182;
        // spectrum block of 2
        const V t2273 = t2270 + t2181;
        const V t2274 = t2270 - t2181;
        // spectrum block of 2
        const V t2275 = t2098 + t2236;
        const V t2276 = t2098 - t2236;
        // spectrum block of 2
        const V t2277 = t2275 + t2180;
        const V t2278 = t2275 - t2180;
        // spectrum block of 2
        const V t2279 = t2276 + t2179;
        const V t2280 = t2276 - t2179;
        // spectrum block of 2
        const V t2281 = t2086 + t2224;
        const V t2282 = t2086 - t2224;
        // spectrum block of 2
        const V t2283 = t2281 + t2156;
        const V t2284 = t2281 - t2156;
        // spectrum block of 2
        const V t2285 = t2282 + t2155;
        const V t2286 = t2282 - t2155;
        // spectrum block of 2
        const V t2287 = t2111 + t2249;
        const V t2288 = t2111 - t2249;
        // spectrum block of 2
        const V t2289 = t2287 - t2206;
        const V t2290 = t2287 + t2206;
        // spectrum block of 2
        const V t2291 = t2288 + t2205;
        const V t2292 = t2288 - t2205;
        // spectrum block of 29, multiplier 2
        const V t2293 = t1800 - t1261;
        // output stage
        const V t2294 = t1777 - t2293;
        io.out(1, t2294);
        const V t2295 = t1777 + t2293;
        io.out(58, t2295);
        const V t2296 = t1738 + t2267;
        io.out(2, t2296);
        const V t2297 = t1738 - t2267;
        io.out(57, t2297);
        const V t2298 = t1746 - t2272;
        io.out(3, t2298);
        const V t2299 = t1746 + t2272;
        io.out(56, t2299);
        const V t2300 = t1770 - t2254;
        io.out(4, t2300);
        const V t2301 = t1770 + t2254;
        io.out(55, t2301);
        const V t2302 = t1749 - t2280;
        io.out(5, t2302);
        const V t2303 = t1749 + t2280;
        io.out(54, t2303);
        const V t2304 = t1761 + t2292;
        io.out(6, t2304);
        const V t2305 = t1761 - t2292;
        io.out(53, t2305);
        const V t2306 = t1775 - t2259;
        io.out(7, t2306);
        const V t2307 = t1775 + t2259;
        io.out(52, t2307);
        const V t2308 = t1764 + t2290;
        io.out(8, t2308);
        const V t2309 = t1764 - t2290;
        io.out(51, t2309);
        const V t2310 = t1773 - t2262;
        io.out(9, t2310);
        const V t2311 = t1773 + t2262;
        io.out(50, t2311);
        const V t2312 = t1762 + t2291;
        io.out(10, t2312);
        const V t2313 = t1762 - t2291;
        io.out(49, t2313);
        const V t2314 = t1756 + t2285;
        io.out(11, t2314);
        const V t2315 = t1756 - t2285;
        io.out(48, t2315);
        const V t2316 = t1750 - t2279;
        io.out(12, t2316);
        const V t2317 = t1750 + t2279;
        io.out(47, t2317);
        const V t2318 = t1774 + t2261;
        io.out(13, t2318);
        const V t2319 = t1774 - t2261;
        io.out(46, t2319);
        const V t2320 = t1758 + t2284;
        io.out(14, t2320);
        const V t2321 = t1758 - t2284;
        io.out(45, t2321);
        const V t2322 = t1769 - t2253;
        io.out(15, t2322);
        const V t2323 = t1769 + t2253;
        io.out(44, t2323);
        const V t2324 = t1755 - t2286;
        io.out(16, t2324);
        const V t2325 = t1755 + t2286;
        io.out(43, t2325);
        const V t2326 = t1776 - t2260;
        io.out(17, t2326);
        const V t2327 = t1776 + t2260;
        io.out(42, t2327);
        const V t2328 = t1752 + t2278;
        io.out(18, t2328);
        const V t2329 = t1752 - t2278;
        io.out(41, t2329);
        const V t2330 = t1743 - t2274;
        io.out(19, t2330);
        const V t2331 = t1743 + t2274;
        io.out(40, t2331);
        const V t2332 = t1745 - t2271;
        io.out(20, t2332);
        const V t2333 = t1745 + t2271;
        io.out(39, t2333);
        const V t2334 = t1757 - t2283;
        io.out(21, t2334);
        const V t2335 = t1757 + t2283;
        io.out(38, t2335);
        const V t2336 = t1763 - t2289;
        io.out(22, t2336);
        const V t2337 = t1763 + t2289;
        io.out(37, t2337);
        const V t2338 = t1751 + t2277;
        io.out(23, t2338);
        const V t2339 = t1751 - t2277;
        io.out(36, t2339);
        const V t2340 = t1768 + t2255;
        io.out(24, t2340);
        const V t2341 = t1768 - t2255;
        io.out(35, t2341);
        const V t2342 = t1739 - t2265;
        io.out(25, t2342);
        const V t2343 = t1739 + t2265;
        io.out(34, t2343);
        const V t2344 = t1740 - t2266;
        io.out(26, t2344);
        const V t2345 = t1740 + t2266;
        io.out(33, t2345);
        const V t2346 = t1767 - t2256;
        io.out(27, t2346);
        const V t2347 = t1767 + t2256;
        io.out(32, t2347);
        const V t2348 = t1744 - t2273;
        io.out(28, t2348);
        const V t2349 = t1744 + t2273;
        io.out(31, t2349);
        const V t2350 = t1737 - t2268;
        io.out(29, t2350);
        const V t2351 = t1737 + t2268;
        io.out(30, t2351);
    }
};

}  // namespace zulg
