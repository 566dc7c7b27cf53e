// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 53.
// Forward DFT of 53 real points, Rader 4, 13.
// 422 additions, 422 subtractions, 456 multiplications (509 with `scale`); 14 outputs negated; 96 constants; 84 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<53> {
    static constexpr int steps = 1353;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.1741386011521359,  // c[2]: Q[3] of 13
        0.5751407294740031,  // c[3]: -P[3] of 13
        0.08333333333333333,  // c[4]: 1/12
        0.3004626062886658,  // c[5]: beta of 13
        0.5084294662830964,  // c[6]: -Q[5] of 13
        0.3203288761978803,  // c[7]: -P[5] of 13
        0.6007253775544544,  // c[8]: -Q[1] of 13
        0.015496188988565054,  // c[9]: -P[1] of 13
        0.280148395734785,  // c[10]: Q[5] of 13
        0.5316276774946329,  // c[11]: -P[5] of 13
        0.2869425954512852,  // c[12]: -P[1] of 13
        0.5279915321544383,  // c[13]: -Q[1] of 13
        0.5794400189009605,  // c[14]: -P[4] of 13
        0.007705858903092426,  // c[15]: P[2] of 13
        0.15924941320823024,  // c[16]: -Q[4] of 13
        0.6008758031820526,  // c[17]: -Q[2] of 13
        0.29376443202296976,  // c[18]: -Q[2] of 13
        0.42218506973345193,  // c[19]: -Q[4] of 13
        0.42763404682657274,  // c[20]: P[4] of 13
        0.5242266395265821,  // c[21]: P[2] of 13
        0.37034194807495624,  // c[22]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[23]: sin 2 pi 1/3 times -Q[4] of 13
        0.45399358717056765,  // c[24]: sin 2 pi 1/3 times P[2] of 13
        0.25440746086019866,  // c[25]: sin 2 pi 1/3 times -Q[2] of 13
        0.5018097763375671,  // c[26]: sin 2 pi 1/3 times -P[4] of 13
        0.00667346956805653,  // c[27]: sin 2 pi 1/3 times P[2] of 13
        0.1903832491584887,  // c[28]: Q[12] of 53
        0.04985858822323415,  // c[29]: Q[16] of 53
        0.27887234952845297,  // c[30]: Q[8] of 53
        0.2758601234844355,  // c[31]: -Q[24] of 53
        0.75,  // c[32]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[33]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.04799540743714245,  // c[34]: P[24] of 53
        0.20532068893261132,  // c[35]: P[12] of 53
        0.27552946855879373,  // c[36]: -P[16] of 53
        0.1379140373760925,  // c[37]: sin 2 pi 1/3 times -Q[4] of 13
        0.520373710075036,  // c[38]: sin 2 pi 1/3 times -Q[2] of 13
        0.26663047052332334,  // c[39]: Q[5] of 53
        0.08550180730497182,  // c[40]: P[5] of 53
        0.10175361370042776,  // c[41]: -Q[21] of 53
        0.2608612063201607,  // c[42]: -P[21] of 53
        0.11888864474491956,  // c[43]: -Q[1] of 53
        0.2535110589592131,  // c[44]: P[1] of 53
        0.08072191645791539,  // c[45]: -Q[25] of 53
        0.26811627900458906,  // c[46]: -P[25] of 53
        0.2786708556034366,  // c[47]: Q[7] of 53
        0.02729324277461261,  // c[48]: P[7] of 53
        0.26661085340441376,  // c[49]: Q[19] of 53
        0.0855629575860694,  // c[50]: P[19] of 53
        0.02027467783966699,  // c[51]: Q[9] of 53
        0.27926923264549397,  // c[52]: P[9] of 53
        0.27294272954157833,  // c[53]: -Q[17] of 53
        0.062487064695808406,  // c[54]: P[17] of 53
        0.2421434442697633,  // c[55]: Q[10] of 53
        0.2645541253996386,  // c[56]: -Q[14] of 53
        0.13160258300584013,  // c[57]: -Q[2] of 53
        0.12218648440059575,  // c[58]: Q[18] of 53
        0.2471500091242084,  // c[59]: P[2] of 53
        0.14060198882334973,  // c[60]: -P[10] of 53
        0.09172503255893466,  // c[61]: P[14] of 53
        0.279948840618166,  // c[62]: Q[20] of 53
        0.005568976607062611,  // c[63]: P[20] of 53
        0.21010412063116707,  // c[64]: Q[6] of 53
        0.18509085703434766,  // c[65]: P[6] of 53
        0.02515113381908794,  // c[66]: P[8] of 53
        0.2519381469601781,  // c[67]: P[18] of 53
        0.2755686148630738,  // c[68]: Q[4] of 53
        0.049641770378907886,  // c[69]: P[4] of 53
        0.21551686731931244,  // c[70]: Q[22] of 53
        0.17875918651855408,  // c[71]: P[22] of 53
        0.27934484277921784,  // c[72]: -Q[3] of 53
        0.01920483471835668,  // c[73]: P[3] of 53
        0.2795810907749542,  // c[74]: Q[23] of 53
        0.015387675100292094,  // c[75]: P[23] of 53
        0.3546048870425356,  // c[76]: -sin 2 pi 49/52
        0.9350162426854148,  // c[77]: cos 2 pi 49/52
        0.15489151598012768,  // c[78]: -Q[11] of 53
        0.23326162380743898,  // c[79]: P[11] of 53
        0.2603347814141748,  // c[80]: -Q[15] of 53
        0.10309300873453617,  // c[81]: -P[15] of 53
        0.970941817426052,  // c[82]: -sin 2 pi 41/52
        0.23931566428755777,  // c[83]: cos 2 pi 41/52
        0.12053668025532305,  // c[84]: -sin 2 pi 51/52
        0.992708874098054,  // c[85]: cos 2 pi 51/52
        0.8854560256532099,  // c[86]: -sin 2 pi 43/52
        0.46472317204376856,  // c[87]: cos 2 pi 43/52
        0.5680647467311558,  // c[88]: -sin 2 pi 47/52
        0.8229838658936564,  // c[89]: cos 2 pi 47/52
        0.7485107481711011,  // c[90]: -sin 2 pi 45/52
        0.6631226582407952,  // c[91]: cos 2 pi 45/52
        0.038836925551200704,  // c[92]: Q[13] of 53
        0.27729778231647617,  // c[93]: -P[13] of 53
        0.019230769230769232,  // c[94]: 1/52
        0.14000211325539458,  // c[95]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x1 = io.in(1);
        const V x52 = io.in(52);
        const V t0 = x1 + x52;
        // real block of 2
        const V x30 = io.in(30);
        const V x23 = io.in(23);
        const V t1 = x30 + x23;
        // real block of 2
        const V t2 = x1 - x52;
        // real block of 2
        const V t3 = x30 - x23;
        // real block of 2
        const V t4 = t0 + t1;
        const V t5 = t0 - t1;
        // real block of 2
        const V x2 = io.in(2);
        const V x51 = io.in(51);
        const V t6 = x2 + x51;
        const V t7 = x2 - x51;
        // real block of 2
        const V x49 = io.in(49);
        const V x4 = io.in(4);
        const V t8 = x49 + x4;
        const V t9 = x49 - x4;
        // real block of 2
        const V x48 = io.in(48);
        const V x5 = io.in(5);
        const V t10 = x48 + x5;
        const V t11 = x48 - x5;
        // real block of 2
        const V x47 = io.in(47);
        const V x6 = io.in(6);
        const V t12 = x47 + x6;
        const V t13 = x47 - x6;
        // real block of 2
        const V x46 = io.in(46);
        const V x7 = io.in(7);
        const V t14 = x46 + x7;
        const V t15 = x46 - x7;
        // real block of 2
        const V x45 = io.in(45);
        const V x8 = io.in(8);
        const V t16 = x45 + x8;
        const V t17 = x45 - x8;
        // real block of 2
        const V x44 = io.in(44);
        const V x9 = io.in(9);
        const V t18 = x44 + x9;
        const V t19 = x44 - x9;
        // real block of 2
        const V x13 = io.in(13);
        const V x40 = io.in(40);
        const V t20 = x13 + x40;
        const V t21 = x13 - x40;
        // real block of 2
        const V x39 = io.in(39);
        const V x14 = io.in(14);
        const V t22 = x39 + x14;
        const V t23 = x39 - x14;
        // real block of 2
        const V x15 = io.in(15);
        const V x38 = io.in(38);
        const V t24 = x15 + x38;
        const V t25 = x15 - x38;
        // real block of 2
        const V x36 = io.in(36);
        const V x17 = io.in(17);
        const V t26 = x36 + x17;
        const V t27 = x36 - x17;
        // real block of 2
        const V x19 = io.in(19);
        const V x34 = io.in(34);
        const V t28 = x19 + x34;
        const V t29 = x19 - x34;
        // real block of 2
        const V x20 = io.in(20);
        const V x33 = io.in(33);
        const V t30 = x20 + x33;
        const V t31 = x20 - x33;
        // real block of 2
        const V x32 = io.in(32);
        const V x21 = io.in(21);
        const V t32 = x32 + x21;
        const V t33 = x32 - x21;
        // real block of 2
        const V x28 = io.in(28);
        const V x25 = io.in(25);
        const V t34 = x28 + x25;
        const V t35 = x28 - x25;
        // real block of 2
        const V x26 = io.in(26);
        const V x27 = io.in(27);
        const V t36 = x26 + x27;
        const V t37 = x26 - x27;
        // real block of 2
        const V t38 = t18 + t10;
        // real block of 2
        const V t39 = t20 + t28;
        // real block of 3
        const V t40 = t38 + t39;
        const V t41 = t38 - t39;
        // real block of 2
        const V t42 = t18 - t10;
        // real block of 2
        const V t43 = t20 - t28;
        // real block of 3
        const V t44 = t42 + t43;
        const V t45 = t42 - t43;
        // real block of 2
        const V t46 = t24 + t36;
        // real block of 2
        const V t47 = t26 + t30;
        // real block of 3
        const V t48 = t46 + t47;
        const V t49 = t46 - t47;
        // real block of 2
        const V t50 = t24 - t36;
        // real block of 2
        const V t51 = t26 - t30;
        // real block of 3
        const V t52 = t50 + t51;
        const V t53 = t50 - t51;
        // real block of 2
        const V t54 = t34 + t16;
        // real block of 2
        const V t55 = t14 + t6;
        // real block of 3
        const V t56 = t55 + t54;
        const V t57 = t55 - t54;
        // real block of 2
        const V t58 = t34 - t16;
        // real block of 2
        const V t59 = t14 - t6;
        // real block of 3
        const V t60 = t59 + t58;
        const V t61 = t59 - t58;
        // real block of 2
        const V t62 = t8 + t22;
        // real block of 2
        const V t63 = t12 + t32;
        // real block of 3
        const V t64 = t63 + t62;
        const V t65 = t63 - t62;
        // real block of 2
        const V t66 = t8 - t22;
        // real block of 2
        const V t67 = t12 - t32;
        // real block of 3
        const V t68 = t67 + t66;
        const V t69 = t67 - t66;
        // real block of 2
        const V t70 = t25 + t15;
        // real block of 2
        const V t71 = t13 + t19;
        // real block of 2
        const V t72 = t70 + t71;
        const V t73 = t70 - t71;
        // real block of 2
        const V t74 = t25 - t15;
        // real block of 2
        const V t75 = t27 - t35;
        // complex block of 3
        const V t76 = t74 + t75;
        const V t77 = t74 - t75;
        // real block of 2
        const V t78 = t13 - t19;
        // real block of 2
        const V t79 = t9 - t21;
        // complex block of 3
        const V t80 = t78 + t79;
        const V t81 = t78 - t79;
        // real block of 2
        const V t82 = t27 + t35;
        // real block of 2
        const V t83 = t9 + t21;
        // real block of 2
        const V t84 = t82 + t83;
        const V t85 = t82 - t83;
        // real block of 2
        const V t86 = t37 + t7;
        // real block of 2
        const V t87 = t33 + t11;
        // real block of 2
        const V t88 = t86 + t87;
        const V t89 = t87 - t86;
        // real block of 2
        const V t90 = t7 - t37;
        // real block of 2
        const V t91 = t17 - t31;
        // complex block of 3
        const V t92 = t90 + t91;
        const V t93 = t90 - t91;
        // real block of 2
        const V t94 = t11 - t33;
        // real block of 2
        const V t95 = t29 - t23;
        // complex block of 3
        const V t96 = t94 + t95;
        const V t97 = t94 - t95;
        // real block of 2
        const V t98 = t31 + t17;
        // real block of 2
        const V t99 = t23 + t29;
        // real block of 2
        const V t100 = t98 + t99;
        const V t101 = t99 - t98;
        // real block of 2
        const V x3 = io.in(3);
        const V x50 = io.in(50);
        const V t102 = x3 + x50;
        const V t103 = x3 - x50;
        // real block of 2
        const V x10 = io.in(10);
        const V x43 = io.in(43);
        const V t104 = x10 + x43;
        const V t105 = x10 - x43;
        // real block of 2
        const V x16 = io.in(16);
        const V x37 = io.in(37);
        const V t106 = x16 + x37;
        const V t107 = x16 - x37;
        // real block of 2
        const V x35 = io.in(35);
        const V x18 = io.in(18);
        const V t108 = x35 + x18;
        const V t109 = x35 - x18;
        // real block of 2
        const V t110 = t106 + t102;
        const V t111 = t106 - t102;
        // real block of 2
        const V t112 = t104 + t108;
        const V t113 = t104 - t108;
        // real block of 2
        const V t114 = t107 + t105;
        const V t115 = t107 - t105;
        // real block of 2
        const V t116 = t103 + t109;
        const V t117 = t109 - t103;
        // real block of 2
        const V x42 = io.in(42);
        const V x11 = io.in(11);
        const V t118 = x42 + x11;
        const V t119 = x42 - x11;
        // real block of 2
        const V x41 = io.in(41);
        const V x12 = io.in(12);
        const V t120 = x41 + x12;
        const V t121 = x41 - x12;
        // real block of 2
        const V x31 = io.in(31);
        const V x22 = io.in(22);
        const V t122 = x31 + x22;
        const V t123 = x31 - x22;
        // real block of 2
        const V x24 = io.in(24);
        const V x29 = io.in(29);
        const V t124 = x24 + x29;
        const V t125 = x24 - x29;
        // real block of 2
        const V t126 = t124 + t122;
        const V t127 = t124 - t122;
        // real block of 2
        const V t128 = t118 + t120;
        const V t129 = t118 - t120;
        // real block of 2
        const V t130 = t119 + t125;
        const V t131 = t119 - t125;
        // real block of 2
        const V t132 = t121 + t123;
        const V t133 = t123 - t121;
        // real block of 3
        const V t134 = t48 + t110;
        // real block of 3
        const V t135 = t56 + t112;
        // real block of 2
        const V t136 = t134 + t135;
        // real block of 3
        const V t137 = t64 + t128;
        // real block of 3
        const V t138 = t40 + t126;
        // real block of 2
        const V t139 = t137 + t138;
        // real block of 2
        const V t140 = t134 - t135;
        // real block of 2
        const V t141 = t137 - t138;
        // real block of 2
        const V t142 = t136 + t139;
        // real block of 3
        const V t143 = c[0] * t48;
        const V t144 = t110 - t143;
        const V t145 = c[1] * t49;
        // real block of 3
        const V t146 = c[1] * t57;
        // complex block of 2
        const V t147 = t145 + t146;
        const V t148 = t146 - t145;
        // real block of 3
        const V t149 = c[0] * t64;
        const V t150 = t128 - t149;
        const V t151 = c[1] * t65;
        // real block of 3
        const V t152 = c[1] * t41;
        // complex block of 2
        const V t153 = t151 + t152;
        const V t154 = t152 - t151;
        // real block of 3
        const V t155 = c[0] * t56;
        const V t156 = t112 - t155;
        // real block of 3
        const V t157 = c[0] * t40;
        const V t158 = t126 - t157;
        // complex block of 2
        const V t159 = t144 + t156;
        // complex block of 2
        const V t160 = t150 + t158;
        // complex block of 2
        const V t161 = t159 + t160;
        const V t162 = t159 - t160;
        // complex block of 2
        const V t163 = t144 - t156;
        // complex block of 2
        const V t164 = t163 - t154;
        const V t165 = t163 + t154;
        // complex block of 2
        const V t166 = t150 - t158;
        // complex block of 2
        const V t167 = t148 + t166;
        const V t168 = t148 - t166;
        // complex block of 2
        const V t169 = t147 + t153;
        const V t170 = t153 - t147;
        // real block of 2
        const V t171 = t114 + t130;
        // real block of 3
        const V t172 = t72 + t84;
        const V t173 = t172 + t171;
        const V t174 = c[0] * t172;
        const V t175 = t171 - t174;
        // complex block of 13, multiplier 4
        const V t176 = c[14] * t175;
        const V t177 = c[4] * t173;
        // real block of 2
        const V t178 = t114 - t130;
        // real block of 3
        const V t179 = t73 + t85;
        const V t180 = t179 + t178;
        const V t181 = c[0] * t179;
        const V t182 = t178 - t181;
        // complex block of 13, multiplier 4
        const V t183 = c[15] * t182;
        const V t184 = c[5] * t180;
        // real block of 3
        const V t185 = t72 - t84;
        const V t186 = c[1] * t185;
        // complex block of 13, multiplier 4
        const V t187 = c[16] * t186;
        // spectrum block of 3
        const V t188 = c[26] * t186;
        // complex block of 3
        const V t189 = t76 + t115;
        // complex block of 13, multiplier 4
        const V t190 = c[2] * t189;
        const V t191 = c[3] * t189;
        // complex block of 3
        const V t192 = t80 + t131;
        // complex block of 13, multiplier 4
        const V t193 = c[3] * t192;
        const V t194 = c[2] * t192;
        // complex block of 3
        const V t195 = c[0] * t76;
        const V t196 = t115 - t195;
        const V t197 = c[1] * t81;
        const V t198 = t196 + t197;
        // complex block of 13, multiplier 4
        const V t199 = c[6] * t198;
        const V t200 = c[7] * t198;
        // complex block of 3
        const V t201 = t196 - t197;
        // complex block of 13, multiplier 4
        const V t202 = c[8] * t201;
        const V t203 = c[9] * t201;
        // complex block of 3
        const V t204 = c[0] * t80;
        const V t205 = t131 - t204;
        const V t206 = c[1] * t77;
        const V t207 = t205 - t206;
        // complex block of 13, multiplier 4
        const V t208 = c[7] * t207;
        const V t209 = c[6] * t207;
        // complex block of 3
        const V t210 = t205 + t206;
        // complex block of 13, multiplier 4
        const V t211 = c[9] * t210;
        const V t212 = c[8] * t210;
        // real block of 3
        const V t213 = t73 - t85;
        const V t214 = c[1] * t213;
        // complex block of 13, multiplier 4
        const V t215 = c[17] * t214;
        // spectrum block of 3
        const V t216 = c[27] * t214;
        // real block of 2
        const V t217 = t116 + t132;
        // real block of 3
        const V t218 = t88 + t100;
        const V t219 = t218 + t217;
        const V t220 = c[0] * t218;
        const V t221 = t220 - t217;
        // complex block of 13, multiplier 4
        const V t222 = c[14] * t221;
        const V t223 = c[4] * t219;
        // real block of 2
        const V t224 = t132 - t116;
        // real block of 3
        const V t225 = t89 + t101;
        const V t226 = t225 + t224;
        const V t227 = c[0] * t225;
        const V t228 = t224 - t227;
        // complex block of 13, multiplier 4
        const V t229 = c[15] * t228;
        const V t230 = c[5] * t226;
        // real block of 3
        const V t231 = t100 - t88;
        const V t232 = c[1] * t231;
        // complex block of 13, multiplier 4
        const V t233 = c[16] * t232;
        // spectrum block of 3
        const V t234 = c[26] * t232;
        // complex block of 3
        const V t235 = t92 + t117;
        // complex block of 13, multiplier 4
        const V t236 = c[2] * t235;
        const V t237 = c[3] * t235;
        // complex block of 3
        const V t238 = t96 + t133;
        // complex block of 13, multiplier 4
        const V t239 = c[3] * t238;
        const V t240 = c[2] * t238;
        // complex block of 3
        const V t241 = c[0] * t92;
        const V t242 = t117 - t241;
        const V t243 = c[1] * t97;
        const V t244 = t242 + t243;
        // complex block of 13, multiplier 4
        const V t245 = c[6] * t244;
        const V t246 = c[7] * t244;
        // complex block of 3
        const V t247 = t242 - t243;
        // complex block of 13, multiplier 4
        const V t248 = c[8] * t247;
        const V t249 = c[9] * t247;
        // complex block of 3
        const V t250 = c[0] * t96;
        const V t251 = t133 - t250;
        const V t252 = c[1] * t93;
        const V t253 = t251 - t252;
        // complex block of 13, multiplier 4
        const V t254 = c[7] * t253;
        const V t255 = c[6] * t253;
        // complex block of 3
        const V t256 = t251 + t252;
        // complex block of 13, multiplier 4
        const V t257 = c[9] * t256;
        const V t258 = c[8] * t256;
        // real block of 3
        const V t259 = t89 - t101;
        const V t260 = c[1] * t259;
        // complex block of 13, multiplier 4
        const V t261 = c[17] * t260;
        // spectrum block of 3
        const V t262 = c[27] * t260;
        // real block of 3
        const V t263 = t52 + t111;
        // real block of 3
        const V t264 = t60 + t113;
        // real block of 2
        const V t265 = t263 + t264;
        // real block of 3
        const V t266 = t68 + t129;
        // real block of 3
        const V t267 = t44 + t127;
        // real block of 2
        const V t268 = t266 + t267;
        // real block of 2
        const V t269 = t263 - t264;
        // real block of 2
        const V t270 = t266 - t267;
        // real block of 2
        const V t271 = t265 + t268;
        // real block of 3
        const V t272 = c[0] * t52;
        const V t273 = t111 - t272;
        const V t274 = c[1] * t53;
        // real block of 3
        const V t275 = c[1] * t61;
        // complex block of 2
        const V t276 = t274 + t275;
        const V t277 = t275 - t274;
        // real block of 3
        const V t278 = c[0] * t68;
        const V t279 = t129 - t278;
        const V t280 = c[1] * t69;
        // real block of 3
        const V t281 = c[1] * t45;
        // complex block of 2
        const V t282 = t280 + t281;
        const V t283 = t281 - t280;
        // real block of 3
        const V t284 = c[0] * t60;
        const V t285 = t113 - t284;
        // real block of 3
        const V t286 = c[0] * t44;
        const V t287 = t127 - t286;
        // complex block of 2
        const V t288 = t273 + t285;
        // complex block of 2
        const V t289 = t279 + t287;
        // complex block of 2
        const V t290 = t288 + t289;
        const V t291 = t288 - t289;
        // complex block of 2
        const V t292 = t273 - t285;
        // complex block of 2
        const V t293 = t292 - t283;
        const V t294 = t292 + t283;
        // complex block of 2
        const V t295 = t279 - t287;
        // complex block of 2
        const V t296 = t277 + t295;
        const V t297 = t277 - t295;
        // complex block of 2
        const V t298 = t276 + t282;
        const V t299 = t282 - t276;
        // real block of 2
        const V t300 = t136 - t139;
        // real block of 13, multiplier 4
        const V t301 = c[5] * t300;
        const V t302 = c[4] * t142;
        const V t303 = t4 - t302;
        // spectrum block of 2
        const V t304 = t303 + t301;
        const V t305 = t303 - t301;
        // real block of 13, multiplier 4
        const V t306 = c[17] * t170;
        const V t307 = c[15] * t162;
        const V t308 = t307 - t306;
        const V t309 = c[16] * t169;
        const V t310 = c[14] * t161;
        const V t311 = t310 + t309;
        // complex block of 2
        const V t312 = t308 - t311;
        // spectrum block of 3, multiplier 2
        const V t313 = c[0] * t312;
        // complex block of 2
        const V t314 = t311 + t308;
        // spectrum block of 3, multiplier 2
        const V t315 = c[0] * t314;
        // real block of 13, multiplier 4
        const V t316 = c[17] * t162;
        const V t317 = c[15] * t170;
        const V t318 = t317 + t316;
        const V t319 = c[16] * t161;
        const V t320 = c[14] * t169;
        const V t321 = t320 - t319;
        // complex block of 2
        const V t322 = t321 + t318;
        const V t323 = t321 - t318;
        // spectrum block of 3, multiplier 2
        const V t324 = t312 + t304;
        const V t325 = t304 - t313;
        const V t326 = c[1] * t322;
        const V t327 = t325 - t326;
        const V t328 = t325 + t326;
        // real block of 53
        const V t329 = c[28] * t328;
        const V t330 = c[29] * t327;
        // spectrum block of 3, multiplier 2
        const V t331 = t305 - t314;
        const V t332 = t315 + t305;
        const V t333 = c[1] * t323;
        const V t334 = t332 - t333;
        const V t335 = t332 + t333;
        // real block of 53
        const V t336 = c[30] * t335;
        const V t337 = c[31] * t334;
        // real block of 13, multiplier 4
        const V t338 = t4 + t142;
        const V t339 = c[8] * t168;
        const V t340 = c[9] * t165;
        const V t341 = t339 - t340;
        const V t342 = c[6] * t167;
        const V t343 = c[7] * t164;
        const V t344 = t343 + t342;
        // complex block of 2
        const V t345 = t341 + t344;
        const V t346 = t344 - t341;
        // mirrored skew block of 6
        const V t347 = c[0] * t346;
        // real block of 13, multiplier 4
        const V t348 = c[8] * t165;
        const V t349 = c[9] * t168;
        const V t350 = t349 + t348;
        const V t351 = c[6] * t164;
        const V t352 = c[7] * t167;
        const V t353 = t352 - t351;
        // complex block of 2
        const V t354 = t353 - t350;
        // spectrum block of 3, multiplier 2
        const V t355 = c[0] * t354;
        // complex block of 2
        const V t356 = t350 + t353;
        // mirrored skew block of 6
        const V t357 = c[1] * t356;
        // real block of 13, multiplier 4
        const V t358 = c[2] * t141;
        const V t359 = c[3] * t140;
        const V t360 = t359 + t358;
        const V t361 = c[2] * t140;
        const V t362 = c[3] * t141;
        const V t363 = t361 - t362;
        // mirrored skew block of 6
        const V t364 = t357 + t347;
        // spectrum block of 3, multiplier 2
        const V t365 = t364 + t360;
        const V t366 = c[0] * t364;
        const V t367 = c[32] * t346;
        const V t368 = c[33] * t356;
        const V t369 = t367 - t368;
        const V t370 = t366 - t360;
        const V t371 = t370 - t369;
        // real block of 53
        const V t372 = c[34] * t365;
        // spectrum block of 3, multiplier 2
        const V t373 = t354 + t363;
        const V t374 = t363 - t355;
        const V t375 = c[1] * t345;
        const V t376 = t374 - t375;
        const V t377 = t374 + t375;
        // real block of 53
        const V t378 = c[35] * t376;
        const V t379 = c[36] * t377;
        // complex block of 13, multiplier 4
        const V t380 = t2 + t173;
        const V t381 = t3 + t219;
        const V t382 = t2 - t177;
        const V t383 = t176 + t187;
        // spectrum block of 3
        const V t384 = t382 - t383;
        const V t385 = c[0] * t383;
        // complex block of 13, multiplier 4
        const V t386 = t248 - t257;
        const V t387 = t245 - t254;
        // complex block of 3
        const V t388 = t387 + t386;
        const V t389 = t387 - t386;
        // complex block of 13, multiplier 4
        const V t390 = t258 + t249;
        const V t391 = t255 + t246;
        // complex block of 3
        const V t392 = t391 + t390;
        const V t393 = t391 - t390;
        // complex block of 13, multiplier 4
        const V t394 = t183 + t215;
        // spectrum block of 3
        const V t395 = t394 + t184;
        const V t396 = c[0] * t394;
        // complex block of 13, multiplier 4
        const V t397 = t239 - t236;
        const V t398 = t240 + t237;
        // spectrum block of 3
        const V t399 = c[37] * t175;
        const V t400 = t188 - t399;
        // spectrum block of 3
        const V t401 = c[38] * t182;
        const V t402 = t216 - t401;
        // spectrum block of 3
        const V t403 = t385 + t382;
        const V t404 = t403 + t400;
        // complex block of 3
        const V t405 = t392 - t398;
        // spectrum block of 2
        const V t406 = t384 - t395;
        // spectrum block of 2
        const V t407 = t406 + t405;
        const V t408 = t406 - t405;
        // complex block of 3
        const V t409 = t388 + t397;
        // spectrum block of 2
        const V t410 = t384 + t395;
        // spectrum block of 2
        const V t411 = t410 + t409;
        const V t412 = t410 - t409;
        // complex block of 3
        const V t413 = c[0] * t392;
        const V t414 = t398 + t413;
        const V t415 = c[0] * t388;
        const V t416 = t397 - t415;
        const V t417 = c[1] * t393;
        const V t418 = c[1] * t389;
        // spectrum block of 3
        const V t419 = t184 - t396;
        const V t420 = t419 - t402;
        // complex block of 13, multiplier 4
        const V t421 = t223 - t3;
        const V t422 = t222 + t233;
        // spectrum block of 3
        const V t423 = t421 - t422;
        const V t424 = c[0] * t422;
        // complex block of 13, multiplier 4
        const V t425 = t211 - t202;
        const V t426 = t208 - t199;
        // complex block of 3
        const V t427 = t426 + t425;
        const V t428 = t426 - t425;
        // complex block of 13, multiplier 4
        const V t429 = t212 + t203;
        const V t430 = t209 + t200;
        // complex block of 3
        const V t431 = t430 + t429;
        const V t432 = t429 - t430;
        // complex block of 13, multiplier 4
        const V t433 = t229 + t261;
        // spectrum block of 3
        const V t434 = t433 + t230;
        const V t435 = c[0] * t433;
        // complex block of 13, multiplier 4
        const V t436 = t190 - t193;
        const V t437 = t194 + t191;
        // spectrum block of 3
        const V t438 = c[37] * t221;
        const V t439 = t234 - t438;
        // spectrum block of 3
        const V t440 = c[38] * t228;
        const V t441 = t262 - t440;
        // spectrum block of 3
        const V t442 = t424 + t421;
        const V t443 = t442 + t439;
        // complex block of 3
        const V t444 = t437 - t431;
        // spectrum block of 2
        const V t445 = t423 - t434;
        // spectrum block of 2
        const V t446 = t445 + t444;
        const V t447 = t445 - t444;
        // complex block of 3
        const V t448 = t427 + t436;
        // spectrum block of 2
        const V t449 = t423 + t434;
        // spectrum block of 2
        const V t450 = t449 + t448;
        const V t451 = t449 - t448;
        // complex block of 3
        const V t452 = c[0] * t431;
        const V t453 = t452 + t437;
        const V t454 = c[0] * t427;
        const V t455 = t436 - t454;
        const V t456 = c[1] * t432;
        const V t457 = c[1] * t428;
        // spectrum block of 3
        const V t458 = t230 - t435;
        const V t459 = t458 - t441;
        // spectrum block of 3
        const V t460 = t403 - t400;
        // spectrum block of 3
        const V t461 = t419 + t402;
        // spectrum block of 2
        const V t462 = t460 + t461;
        const V t463 = t460 - t461;
        // complex block of 3
        const V t464 = t418 - t414;
        const V t465 = t416 - t417;
        // spectrum block of 2
        const V t466 = t462 + t465;
        const V t467 = t462 - t465;
        // spectrum block of 2
        const V t468 = t463 + t464;
        const V t469 = t463 - t464;
        // complex block of 3
        const V t470 = t414 + t418;
        // spectrum block of 2
        const V t471 = t404 - t420;
        // spectrum block of 2
        const V t472 = t471 - t470;
        const V t473 = t471 + t470;
        // complex block of 3
        const V t474 = t453 - t457;
        // spectrum block of 2
        const V t475 = t443 - t459;
        // spectrum block of 2
        const V t476 = t475 + t474;
        const V t477 = t475 - t474;
        // real block of 53
        const V t478 = c[39] * t477;
        const V t479 = c[40] * t473;
        const V t480 = t479 - t478;
        const V t481 = c[39] * t473;
        const V t482 = c[40] * t477;
        const V t483 = t482 + t481;
        const V t484 = c[41] * t476;
        const V t485 = c[42] * t472;
        const V t486 = t484 - t485;
        const V t487 = c[41] * t472;
        const V t488 = c[42] * t476;
        const V t489 = t488 + t487;
        // complex block of 3
        const V t490 = t416 + t417;
        // spectrum block of 2
        const V t491 = t404 + t420;
        // spectrum block of 2
        const V t492 = t491 + t490;
        const V t493 = t491 - t490;
        // complex block of 3
        const V t494 = t455 + t456;
        // spectrum block of 2
        const V t495 = t443 + t459;
        // spectrum block of 2
        const V t496 = t495 + t494;
        const V t497 = t495 - t494;
        // real block of 53
        const V t498 = c[43] * t497;
        const V t499 = c[44] * t493;
        const V t500 = t499 + t498;
        const V t501 = c[43] * t493;
        const V t502 = c[44] * t497;
        const V t503 = t502 - t501;
        const V t504 = c[45] * t496;
        const V t505 = c[46] * t492;
        const V t506 = t504 - t505;
        const V t507 = c[45] * t492;
        const V t508 = c[46] * t496;
        const V t509 = t508 + t507;
        // spectrum block of 3
        const V t510 = t442 - t439;
        // spectrum block of 3
        const V t511 = t458 + t441;
        // spectrum block of 2
        const V t512 = t510 + t511;
        const V t513 = t510 - t511;
        // complex block of 3
        const V t514 = t453 + t457;
        const V t515 = t455 - t456;
        // spectrum block of 2
        const V t516 = t512 + t515;
        const V t517 = t512 - t515;
        // spectrum block of 2
        const V t518 = t513 + t514;
        const V t519 = t513 - t514;
        // real block of 53
        const V t520 = c[47] * t447;
        const V t521 = c[48] * t408;
        const V t522 = t521 + t520;
        const V t523 = c[49] * t446;
        const V t524 = c[50] * t407;
        const V t525 = t524 + t523;
        // complex block of 2
        const V t526 = t522 + t525;
        // real block of 53
        const V t527 = c[47] * t408;
        const V t528 = c[48] * t447;
        const V t529 = t527 - t528;
        const V t530 = c[49] * t407;
        const V t531 = c[50] * t446;
        const V t532 = t530 - t531;
        // complex block of 2
        const V t533 = t529 - t532;
        // real block of 53
        const V t534 = c[51] * t451;
        const V t535 = c[52] * t412;
        const V t536 = t535 - t534;
        const V t537 = c[53] * t450;
        const V t538 = c[54] * t411;
        const V t539 = t538 + t537;
        // complex block of 2
        const V t540 = t536 + t539;
        // real block of 53
        const V t541 = c[51] * t412;
        const V t542 = c[52] * t451;
        const V t543 = t542 + t541;
        const V t544 = c[53] * t411;
        const V t545 = c[54] * t450;
        const V t546 = t545 - t544;
        // complex block of 2
        const V t547 = t543 - t546;
        // real block of 2
        const V t548 = t265 - t268;
        // real block of 13, multiplier 4
        const V t549 = c[5] * t548;
        const V t550 = c[4] * t271;
        const V t551 = t5 - t550;
        // spectrum block of 2
        const V t552 = t551 + t549;
        const V t553 = t551 - t549;
        // real block of 13, multiplier 4
        const V t554 = c[17] * t299;
        const V t555 = c[15] * t291;
        const V t556 = t555 - t554;
        const V t557 = c[16] * t298;
        const V t558 = c[14] * t290;
        const V t559 = t558 + t557;
        // complex block of 2
        const V t560 = t556 - t559;
        // spectrum block of 3, multiplier 2
        const V t561 = c[0] * t560;
        // complex block of 2
        const V t562 = t559 + t556;
        // spectrum block of 3, multiplier 2
        const V t563 = c[0] * t562;
        // real block of 13, multiplier 4
        const V t564 = c[17] * t291;
        const V t565 = c[15] * t299;
        const V t566 = t565 + t564;
        const V t567 = c[16] * t290;
        const V t568 = c[14] * t298;
        const V t569 = t568 - t567;
        // complex block of 2
        const V t570 = t569 + t566;
        const V t571 = t569 - t566;
        // spectrum block of 3, multiplier 2
        const V t572 = t560 + t552;
        const V t573 = t552 - t561;
        const V t574 = c[1] * t570;
        const V t575 = t573 - t574;
        const V t576 = t573 + t574;
        // real block of 53
        const V t577 = c[55] * t575;
        const V t578 = c[56] * t576;
        // spectrum block of 3, multiplier 2
        const V t579 = t553 - t562;
        const V t580 = t563 + t553;
        const V t581 = c[1] * t571;
        const V t582 = t580 - t581;
        const V t583 = t580 + t581;
        // real block of 53
        const V t584 = c[57] * t582;
        const V t585 = c[58] * t583;
        // real block of 13, multiplier 4
        const V t586 = t5 + t271;
        const V t587 = c[8] * t297;
        const V t588 = c[9] * t294;
        const V t589 = t587 - t588;
        const V t590 = c[6] * t296;
        const V t591 = c[7] * t293;
        const V t592 = t591 + t590;
        // complex block of 2
        const V t593 = t589 + t592;
        const V t594 = t592 - t589;
        // mirrored skew block of 6
        const V t595 = c[0] * t594;
        // real block of 13, multiplier 4
        const V t596 = c[8] * t294;
        const V t597 = c[9] * t297;
        const V t598 = t597 + t596;
        const V t599 = c[6] * t293;
        const V t600 = c[7] * t296;
        const V t601 = t600 - t599;
        // complex block of 2
        const V t602 = t601 - t598;
        // spectrum block of 3, multiplier 2
        const V t603 = c[0] * t602;
        // complex block of 2
        const V t604 = t598 + t601;
        // mirrored skew block of 6
        const V t605 = c[1] * t604;
        // real block of 13, multiplier 4
        const V t606 = c[2] * t270;
        const V t607 = c[3] * t269;
        const V t608 = t607 + t606;
        const V t609 = c[2] * t269;
        const V t610 = c[3] * t270;
        const V t611 = t609 - t610;
        // mirrored skew block of 6
        const V t612 = t605 + t595;
        // spectrum block of 3, multiplier 2
        const V t613 = t612 + t608;
        const V t614 = c[0] * t612;
        const V t615 = c[32] * t594;
        const V t616 = c[33] * t604;
        const V t617 = t615 - t616;
        const V t618 = t614 - t608;
        const V t619 = t618 - t617;
        // real block of 53
        const V t620 = c[59] * t613;
        // spectrum block of 3, multiplier 2
        const V t621 = t602 + t611;
        const V t622 = t611 - t603;
        const V t623 = c[1] * t593;
        const V t624 = t622 - t623;
        const V t625 = t622 + t623;
        // real block of 53
        const V t626 = c[60] * t625;
        const V t627 = c[61] * t624;
        // spectrum block of 3, multiplier 2
        const V t628 = t370 + t369;
        // real block of 53
        const V t629 = c[62] * t628;
        const V t630 = c[63] * t628;
        const V t631 = c[63] * t331;
        const V t632 = c[62] * t331;
        const V t633 = t631 + t629;
        const V t634 = t632 - t630;
        // spectrum block of 3, multiplier 2
        const V t635 = t618 + t617;
        // real block of 53
        const V t636 = c[64] * t635;
        const V t637 = c[65] * t635;
        const V t638 = c[65] * t579;
        const V t639 = c[64] * t579;
        const V t640 = t638 - t636;
        const V t641 = t637 + t639;
        const V t642 = c[57] * t613;
        const V t643 = c[59] * t582;
        const V t644 = t643 - t642;
        const V t645 = c[30] * t371;
        const V t646 = c[66] * t335;
        const V t647 = t646 + t645;
        const V t648 = c[58] * t619;
        const V t649 = c[67] * t583;
        const V t650 = t649 - t648;
        const V t651 = c[31] * t365;
        const V t652 = c[34] * t334;
        const V t653 = t652 + t651;
        // complex block of 2
        const V t654 = t647 + t650;
        // complex block of 2
        const V t655 = t653 + t644;
        // real block of 3, multiplier 2
        const V t656 = t655 + t654;
        const V t657 = t655 - t654;
        // complex block of 2
        const V t658 = t647 - t650;
        // complex block of 2
        const V t659 = t653 - t644;
        // real block of 3, multiplier 2
        const V t660 = t659 + t658;
        const V t661 = t659 - t658;
        // real block of 53
        const V t662 = t620 + t584;
        const V t663 = t372 - t337;
        // complex block of 2
        const V t664 = t663 + t662;
        const V t665 = t663 - t662;
        // real block of 53
        const V t666 = t577 - t626;
        const V t667 = t379 + t330;
        // complex block of 2
        const V t668 = t667 - t666;
        const V t669 = t667 + t666;
        // skew block of 6
        const V t670 = c[1] * t664;
        const V t671 = c[0] * t668;
        const V t672 = t671 - t670;
        const V t673 = c[1] * t668;
        const V t674 = c[0] * t664;
        const V t675 = t674 + t673;
        // skew block of 6
        const V t676 = c[1] * t665;
        const V t677 = c[0] * t669;
        const V t678 = t677 - t676;
        const V t679 = c[1] * t669;
        const V t680 = c[0] * t665;
        const V t681 = t680 + t679;
        // real block of 53
        const V t682 = c[68] * t373;
        const V t683 = c[69] * t324;
        const V t684 = t683 - t682;
        const V t685 = c[70] * t621;
        const V t686 = c[71] * t572;
        const V t687 = t686 + t685;
        // complex block of 2
        const V t688 = t684 + t687;
        const V t689 = t684 - t687;
        // real block of 53
        const V t690 = c[68] * t324;
        const V t691 = c[69] * t373;
        const V t692 = t691 + t690;
        const V t693 = c[66] * t371;
        const V t694 = t336 - t693;
        const V t695 = c[67] * t619;
        const V t696 = t695 + t585;
        // complex block of 2
        const V t697 = t694 - t696;
        // skew block of 6
        const V t698 = c[1] * t697;
        const V t699 = c[0] * t697;
        // complex block of 2
        const V t700 = t694 + t696;
        // skew block of 6
        const V t701 = c[1] * t700;
        const V t702 = c[0] * t700;
        // real block of 53
        const V t703 = c[55] * t625;
        const V t704 = c[60] * t575;
        const V t705 = t704 + t703;
        const V t706 = c[28] * t376;
        const V t707 = c[35] * t328;
        const V t708 = t707 - t706;
        const V t709 = c[56] * t624;
        const V t710 = c[61] * t576;
        const V t711 = t710 - t709;
        const V t712 = c[29] * t377;
        const V t713 = c[36] * t327;
        const V t714 = t712 - t713;
        // complex block of 2
        const V t715 = t708 + t711;
        // complex block of 2
        const V t716 = t714 - t705;
        // real block of 3, multiplier 2
        const V t717 = t716 + t715;
        const V t718 = t716 - t715;
        // complex block of 2
        const V t719 = t708 - t711;
        // complex block of 2
        const V t720 = t714 + t705;
        // real block of 3, multiplier 2
        const V t721 = t720 + t719;
        const V t722 = t720 - t719;
        // real block of 53
        const V t723 = t378 + t329;
        const V t724 = t627 + t578;
        // complex block of 2
        const V t725 = t723 + t724;
        const V t726 = t723 - t724;
        // skew block of 6
        const V t727 = c[0] * t725;
        const V t728 = c[1] * t725;
        // skew block of 6
        const V t729 = c[0] * t726;
        const V t730 = c[1] * t726;
        // real block of 53
        const V t731 = c[70] * t572;
        const V t732 = c[71] * t621;
        const V t733 = t731 - t732;
        // complex block of 2
        const V t734 = t692 - t733;
        // skew block of 6
        const V t735 = t698 - t727;
        // complex block of 3
        const V t736 = t735 + t672;
        const V t737 = t735 - t672;
        const V t738 = t736 + t734;
        const V t739 = c[0] * t736;
        const V t740 = t734 - t739;
        const V t741 = c[1] * t737;
        // complex block of 2
        const V t742 = t692 + t733;
        // skew block of 6
        const V t743 = t701 - t729;
        // complex block of 3
        const V t744 = t743 + t678;
        const V t745 = t743 - t678;
        const V t746 = t744 + t742;
        const V t747 = c[0] * t744;
        const V t748 = t742 - t747;
        const V t749 = c[1] * t745;
        // complex block of 2
        const V t750 = t634 - t641;
        // skew block of 6
        const V t751 = t728 + t699;
        // complex block of 3
        const V t752 = t751 + t675;
        const V t753 = t675 - t751;
        const V t754 = t750 - t752;
        const V t755 = c[0] * t752;
        const V t756 = t755 + t750;
        const V t757 = c[1] * t753;
        // complex block of 2
        const V t758 = t633 + t640;
        // real block of 3, multiplier 2
        const V t759 = c[0] * t656;
        const V t760 = t656 + t758;
        const V t761 = t758 - t759;
        // real block of 3, multiplier 2
        const V t762 = t717 + t688;
        const V t763 = c[0] * t717;
        const V t764 = t688 - t763;
        // real block of 2
        const V t765 = t762 + t760;
        const V t766 = t762 - t760;
        // complex block of 2
        const V t767 = t764 + t761;
        const V t768 = t764 - t761;
        // complex block of 2
        const V t769 = t634 + t641;
        // skew block of 6
        const V t770 = t730 + t702;
        // complex block of 3
        const V t771 = t770 + t681;
        const V t772 = t681 - t770;
        const V t773 = t769 - t771;
        const V t774 = c[0] * t771;
        const V t775 = t774 + t769;
        const V t776 = c[1] * t772;
        // complex block of 2
        const V t777 = t633 - t640;
        // real block of 3, multiplier 2
        const V t778 = c[0] * t660;
        const V t779 = t660 + t777;
        const V t780 = t777 - t778;
        // real block of 3, multiplier 2
        const V t781 = t721 + t689;
        const V t782 = c[0] * t721;
        const V t783 = t689 - t782;
        // real block of 2
        const V t784 = t781 + t779;
        const V t785 = t781 - t779;
        // complex block of 2
        const V t786 = t783 + t780;
        const V t787 = t783 - t780;
        // real block of 3, multiplier 2
        const V t788 = c[1] * t718;
        // real block of 3, multiplier 2
        const V t789 = c[1] * t657;
        // complex block of 2
        const V t790 = t788 + t789;
        const V t791 = t788 - t789;
        // spectrum block of 13, multiplier 2
        const V t792 = c[18] * t791;
        const V t793 = c[19] * t790;
        // real block of 3, multiplier 2
        const V t794 = c[1] * t722;
        // real block of 3, multiplier 2
        const V t795 = c[1] * t661;
        // complex block of 2
        const V t796 = t794 + t795;
        const V t797 = t794 - t795;
        // spectrum block of 13, multiplier 2
        const V t798 = c[18] * t797;
        const V t799 = c[19] * t796;
        // real block of 53
        const V t800 = c[94] * t338;
        const V x0 = io.in(0);
        const V t801 = t800 - x0;
        const V t802 = c[95] * t586;
        // spectrum block of 2
        const V t803 = t802 - t801;
        const V t804 = t801 + t802;
        // complex block of 3
        const V t805 = t740 + t757;
        // spectrum block of 13, multiplier 2
        const V t806 = c[10] * t805;
        const V t807 = c[11] * t805;
        // complex block of 3
        const V t808 = t756 - t741;
        // spectrum block of 13, multiplier 2
        const V t809 = c[11] * t808;
        const V t810 = c[10] * t808;
        const V t811 = c[12] * t754;
        const V t812 = c[13] * t738;
        const V t813 = t811 - t812;
        const V t814 = c[12] * t738;
        const V t815 = c[13] * t754;
        const V t816 = t815 + t814;
        const V t817 = t806 + t809;
        // complex block of 3
        const V t818 = t817 + t813;
        const V t819 = t817 - t813;
        // spectrum block of 13, multiplier 2
        const V t820 = t810 - t807;
        // complex block of 3
        const V t821 = t816 - t820;
        const V t822 = t820 + t816;
        // complex block of 3
        const V t823 = t740 - t757;
        // spectrum block of 13, multiplier 2
        const V t824 = c[3] * t823;
        const V t825 = c[2] * t823;
        // complex block of 3
        const V t826 = t756 + t741;
        // spectrum block of 13, multiplier 2
        const V t827 = c[2] * t826;
        const V t828 = c[3] * t826;
        const V t829 = t827 - t824;
        const V t830 = t828 + t825;
        const V t831 = c[4] * t765;
        const V t832 = t831 - t803;
        const V t833 = c[20] * t767;
        const V t834 = t833 + t793;
        // spectrum block of 3
        const V t835 = t834 - t832;
        const V t836 = c[0] * t834;
        const V t837 = t832 + t836;
        // spectrum block of 13, multiplier 2
        const V t838 = c[21] * t768;
        const V t839 = t838 - t792;
        const V t840 = c[5] * t766;
        // spectrum block of 3
        const V t841 = t839 - t840;
        const V t842 = c[0] * t839;
        const V t843 = t840 + t842;
        // spectrum block of 3
        const V t844 = c[22] * t790;
        const V t845 = c[23] * t767;
        const V t846 = t844 - t845;
        // spectrum block of 3
        const V t847 = c[24] * t791;
        const V t848 = c[25] * t768;
        const V t849 = t847 + t848;
        // spectrum block of 3
        const V t850 = t837 + t846;
        // spectrum block of 3
        const V t851 = t843 + t849;
        // spectrum block of 2
        const V t852 = t850 + t851;
        const V t853 = t851 - t850;
        // spectrum block of 3
        const V t854 = t846 - t837;
        // spectrum block of 3
        const V t855 = t849 - t843;
        // spectrum block of 2
        const V t856 = t854 + t855;
        const V t857 = t854 - t855;
        // complex block of 3
        const V t858 = c[0] * t821;
        const V t859 = t830 - t858;
        const V t860 = c[0] * t818;
        const V t861 = t829 - t860;
        const V t862 = c[1] * t822;
        const V t863 = c[1] * t819;
        const V t864 = t859 + t863;
        // spectrum block of 2
        const V t865 = t853 + t864;
        io.re(7, t865);
        const V t866 = t853 - t864;
        io.re(15, t866);
        // complex block of 3
        const V t867 = t861 + t862;
        // spectrum block of 2
        const V t868 = t867 - t852;
        io.re(9, t868);
        const V t869 = t852 + t867;
        io.minusRe(6, t869);
        // complex block of 3
        const V t870 = t859 - t863;
        // spectrum block of 2
        const V t871 = t857 + t870;
        io.re(10, t871);
        const V t872 = t857 - t870;
        io.re(16, t872);
        // complex block of 3
        const V t873 = t861 - t862;
        // spectrum block of 2
        const V t874 = t856 + t873;
        io.re(24, t874);
        const V t875 = t856 - t873;
        io.re(11, t875);
        // complex block of 3
        const V t876 = t821 + t830;
        // spectrum block of 2
        const V t877 = t835 - t841;
        // spectrum block of 2
        const V t878 = t877 + t876;
        io.re(25, t878);
        const V t879 = t877 - t876;
        io.re(17, t879);
        // complex block of 3
        const V t880 = t818 + t829;
        // spectrum block of 2
        const V t881 = t835 + t841;
        // spectrum block of 2
        const V t882 = t881 + t880;
        io.re(13, t882);
        const V t883 = t881 - t880;
        io.re(4, t883);
        // spectrum block of 13, multiplier 2
        const V t884 = t803 + t765;
        io.re(1, t884);
        // complex block of 3
        const V t885 = t748 + t776;
        // spectrum block of 13, multiplier 2
        const V t886 = c[10] * t885;
        const V t887 = c[11] * t885;
        // complex block of 3
        const V t888 = t775 - t749;
        // spectrum block of 13, multiplier 2
        const V t889 = c[11] * t888;
        const V t890 = c[10] * t888;
        const V t891 = c[12] * t773;
        const V t892 = c[13] * t746;
        const V t893 = t891 - t892;
        const V t894 = c[12] * t746;
        const V t895 = c[13] * t773;
        const V t896 = t895 + t894;
        const V t897 = t886 + t889;
        // complex block of 3
        const V t898 = t897 + t893;
        const V t899 = t897 - t893;
        // spectrum block of 13, multiplier 2
        const V t900 = t890 - t887;
        // complex block of 3
        const V t901 = t896 - t900;
        const V t902 = t900 + t896;
        // complex block of 3
        const V t903 = t748 - t776;
        // spectrum block of 13, multiplier 2
        const V t904 = c[3] * t903;
        const V t905 = c[2] * t903;
        // complex block of 3
        const V t906 = t775 + t749;
        // spectrum block of 13, multiplier 2
        const V t907 = c[2] * t906;
        const V t908 = c[3] * t906;
        const V t909 = t907 - t904;
        const V t910 = t908 + t905;
        const V t911 = c[4] * t784;
        const V t912 = t804 + t911;
        const V t913 = c[20] * t786;
        const V t914 = t913 + t799;
        // spectrum block of 3
        const V t915 = t914 - t912;
        const V t916 = c[0] * t914;
        const V t917 = t912 + t916;
        // spectrum block of 13, multiplier 2
        const V t918 = c[21] * t787;
        const V t919 = t918 - t798;
        const V t920 = c[5] * t785;
        // spectrum block of 3
        const V t921 = t919 - t920;
        const V t922 = c[0] * t919;
        const V t923 = t920 + t922;
        // spectrum block of 3
        const V t924 = c[22] * t796;
        const V t925 = c[23] * t786;
        const V t926 = t924 - t925;
        // spectrum block of 3
        const V t927 = c[24] * t797;
        const V t928 = c[25] * t787;
        const V t929 = t927 + t928;
        // spectrum block of 3
        const V t930 = t917 + t926;
        // spectrum block of 3
        const V t931 = t923 + t929;
        // spectrum block of 2
        const V t932 = t930 + t931;
        const V t933 = t931 - t930;
        // spectrum block of 3
        const V t934 = t926 - t917;
        // spectrum block of 3
        const V t935 = t929 - t923;
        // spectrum block of 2
        const V t936 = t934 + t935;
        const V t937 = t934 - t935;
        // complex block of 3
        const V t938 = c[0] * t901;
        const V t939 = t910 - t938;
        const V t940 = c[0] * t898;
        const V t941 = t909 - t940;
        const V t942 = c[1] * t902;
        const V t943 = c[1] * t899;
        const V t944 = t939 + t943;
        // spectrum block of 2
        const V t945 = t933 + t944;
        io.re(2, t945);
        const V t946 = t933 - t944;
        io.re(26, t946);
        // complex block of 3
        const V t947 = t941 + t942;
        // spectrum block of 2
        const V t948 = t947 - t932;
        io.re(5, t948);
        const V t949 = t932 + t947;
        io.minusRe(21, t949);
        // complex block of 3
        const V t950 = t939 - t943;
        // spectrum block of 2
        const V t951 = t937 + t950;
        io.re(18, t951);
        const V t952 = t937 - t950;
        io.re(3, t952);
        // complex block of 3
        const V t953 = t941 - t942;
        // spectrum block of 2
        const V t954 = t936 + t953;
        io.re(22, t954);
        const V t955 = t936 - t953;
        io.re(12, t955);
        // complex block of 3
        const V t956 = t901 + t910;
        // spectrum block of 2
        const V t957 = t915 - t921;
        // spectrum block of 2
        const V t958 = t957 + t956;
        io.re(8, t958);
        const V t959 = t957 - t956;
        io.re(20, t959);
        // complex block of 3
        const V t960 = t898 + t909;
        // spectrum block of 2
        const V t961 = t915 + t921;
        // spectrum block of 2
        const V t962 = t961 + t960;
        io.re(19, t962);
        const V t963 = t961 - t960;
        io.re(14, t963);
        // spectrum block of 13, multiplier 2
        const V t964 = t784 - t804;
        io.re(23, t964);
        // real block of 53
        const V t965 = x0 + t338;
        io.re(0, t965);
        const V t966 = c[72] * t516;
        const V t967 = c[73] * t466;
        const V t968 = t967 - t966;
        const V t969 = c[74] * t517;
        const V t970 = c[75] * t467;
        const V t971 = t970 + t969;
        // complex block of 2
        const V t972 = t971 - t968;
        const V t973 = t968 + t971;
        // mirrored skew block of 26
        const V t974 = c[76] * t973;
        // real block of 53
        const V t975 = c[72] * t466;
        const V t976 = c[73] * t516;
        const V t977 = t976 + t975;
        const V t978 = c[74] * t467;
        const V t979 = c[75] * t517;
        const V t980 = t978 - t979;
        // complex block of 2
        const V t981 = t980 - t977;
        const V t982 = t977 + t980;
        // mirrored skew block of 26
        const V t983 = c[77] * t982;
        // real block of 53
        const V t984 = c[78] * t519;
        const V t985 = c[79] * t469;
        const V t986 = t985 - t984;
        const V t987 = c[80] * t518;
        const V t988 = c[81] * t468;
        const V t989 = t988 + t987;
        // complex block of 2
        const V t990 = t986 + t989;
        const V t991 = t989 - t986;
        // mirrored skew block of 26
        const V t992 = c[82] * t991;
        // real block of 53
        const V t993 = c[78] * t469;
        const V t994 = c[79] * t519;
        const V t995 = t994 + t993;
        const V t996 = c[80] * t468;
        const V t997 = c[81] * t518;
        const V t998 = t997 - t996;
        // complex block of 2
        const V t999 = t998 - t995;
        const V t1000 = t995 + t998;
        // mirrored skew block of 26
        const V t1001 = c[83] * t1000;
        // complex block of 2
        const V t1002 = t506 - t500;
        // skew block of 6
        const V t1003 = c[1] * t1002;
        const V t1004 = c[0] * t1002;
        // complex block of 2
        const V t1005 = t486 - t480;
        // skew block of 6
        const V t1006 = c[0] * t1005;
        const V t1007 = c[1] * t1005;
        // complex block of 2
        const V t1008 = t525 - t522;
        // skew block of 6
        const V t1009 = c[0] * t1008;
        const V t1010 = c[1] * t1008;
        // complex block of 2
        const V t1011 = t539 - t536;
        // skew block of 6
        const V t1012 = c[1] * t1011;
        const V t1013 = c[0] * t1011;
        const V t1014 = t1009 - t1012;
        const V t1015 = t1003 - t1006;
        // complex block of 3
        const V t1016 = t1014 + t1015;
        // skew block of 6
        const V t1017 = t1010 + t1013;
        const V t1018 = t1004 + t1007;
        // complex block of 3
        const V t1019 = t1017 + t1018;
        // complex block of 2
        const V t1020 = t503 - t509;
        // complex block of 2
        const V t1021 = t543 + t546;
        // real block of 3, multiplier 2
        const V t1022 = t1020 + t1021;
        const V t1023 = t1020 - t1021;
        const V t1024 = c[0] * t1022;
        const V t1025 = c[1] * t1023;
        // complex block of 2
        const V t1026 = t500 + t506;
        // mirrored skew block of 26
        const V t1027 = c[84] * t1026;
        const V t1028 = c[85] * t1026;
        // complex block of 2
        const V t1029 = t503 + t509;
        // mirrored skew block of 26
        const V t1030 = c[85] * t1029;
        const V t1031 = c[84] * t1029;
        const V t1032 = c[86] * t540;
        const V t1033 = c[87] * t547;
        const V t1034 = t1033 + t1032;
        const V t1035 = t1030 + t1027;
        // real block of 3, multiplier 2
        const V t1036 = t1035 + t1034;
        const V t1037 = t1035 - t1034;
        // mirrored skew block of 26
        const V t1038 = t1031 - t1028;
        // skew block of 6
        const V t1039 = c[1] * t1038;
        const V t1040 = c[0] * t1038;
        // complex block of 2
        const V t1041 = t483 - t489;
        // complex block of 2
        const V t1042 = t529 + t532;
        // real block of 3, multiplier 2
        const V t1043 = t1041 + t1042;
        const V t1044 = t1041 - t1042;
        const V t1045 = c[0] * t1043;
        const V t1046 = c[1] * t1044;
        // complex block of 2
        const V t1047 = t480 + t486;
        // mirrored skew block of 26
        const V t1048 = c[88] * t1047;
        const V t1049 = c[89] * t1047;
        // complex block of 2
        const V t1050 = t483 + t489;
        // mirrored skew block of 26
        const V t1051 = c[89] * t1050;
        const V t1052 = c[88] * t1050;
        const V t1053 = c[90] * t526;
        const V t1054 = c[91] * t533;
        const V t1055 = t1054 + t1053;
        const V t1056 = t1051 + t1048;
        // real block of 3, multiplier 2
        const V t1057 = t1056 + t1055;
        const V t1058 = t1056 - t1055;
        // mirrored skew block of 26
        const V t1059 = t1052 - t1049;
        // skew block of 6
        const V t1060 = c[0] * t1059;
        const V t1061 = c[1] * t1059;
        // mirrored skew block of 26
        const V t1062 = c[90] * t533;
        const V t1063 = c[91] * t526;
        const V t1064 = t1062 - t1063;
        const V t1065 = c[86] * t547;
        const V t1066 = c[87] * t540;
        const V t1067 = t1065 - t1066;
        // skew block of 6
        const V t1068 = c[0] * t1064;
        const V t1069 = c[1] * t1067;
        const V t1070 = t1068 - t1069;
        const V t1071 = c[0] * t1067;
        const V t1072 = c[1] * t1064;
        const V t1073 = t1072 + t1071;
        // mirrored skew block of 26
        const V t1074 = t974 - t983;
        // real block of 3, multiplier 2
        const V t1075 = c[0] * t1036;
        const V t1076 = t1036 + t1074;
        const V t1077 = t1074 - t1075;
        // mirrored skew block of 26
        const V t1078 = t1001 + t992;
        // real block of 3, multiplier 2
        const V t1079 = c[0] * t1057;
        const V t1080 = t1057 - t1078;
        const V t1081 = t1078 + t1079;
        // real block of 2
        const V t1082 = t1080 + t1076;
        // complex block of 2
        const V t1083 = t1077 - t1081;
        const V t1084 = t1081 + t1077;
        // mirrored skew block of 26
        const V t1085 = c[76] * t982;
        const V t1086 = c[77] * t973;
        const V t1087 = t1086 + t1085;
        // skew block of 6
        const V t1088 = t1040 + t1061;
        // complex block of 3
        const V t1089 = t1073 + t1088;
        const V t1090 = t1073 - t1088;
        const V t1091 = t1089 + t1087;
        const V t1092 = c[0] * t1089;
        const V t1093 = t1087 - t1092;
        const V t1094 = c[1] * t1090;
        // mirrored skew block of 26
        const V t1095 = c[82] * t1000;
        const V t1096 = c[83] * t991;
        const V t1097 = t1096 - t1095;
        // skew block of 6
        const V t1098 = t1039 - t1060;
        // complex block of 3
        const V t1099 = t1070 + t1098;
        const V t1100 = t1070 - t1098;
        const V t1101 = t1099 - t1097;
        const V t1102 = c[0] * t1099;
        const V t1103 = t1097 + t1102;
        const V t1104 = c[1] * t1100;
        // real block of 3, multiplier 2
        const V t1105 = t1043 + t999;
        // real block of 3, multiplier 2
        const V t1106 = t1022 + t981;
        // real block of 2
        const V t1107 = t1105 + t1106;
        const V t1108 = t1105 - t1106;
        // spectrum block of 13, multiplier 2
        const V t1109 = c[4] * t1107;
        // real block of 3, multiplier 2
        const V t1110 = t999 - t1045;
        // real block of 3, multiplier 2
        const V t1111 = t981 - t1024;
        // complex block of 2
        const V t1112 = t1110 + t1111;
        const V t1113 = t1110 - t1111;
        // spectrum block of 13, multiplier 2
        const V t1114 = c[21] * t1113;
        const V t1115 = c[20] * t1112;
        // complex block of 2
        const V t1116 = t1046 + t1025;
        // spectrum block of 13, multiplier 2
        const V t1117 = c[19] * t1116;
        // spectrum block of 3
        const V t1118 = c[22] * t1116;
        // complex block of 2
        const V t1119 = t1046 - t1025;
        // spectrum block of 13, multiplier 2
        const V t1120 = c[18] * t1119;
        // spectrum block of 3
        const V t1121 = c[24] * t1119;
        // complex block of 3
        const V t1122 = t1014 - t1015;
        const V t1123 = c[1] * t1122;
        const V t1124 = c[0] * t1019;
        const V t1125 = t972 + t1124;
        const V t1126 = t1125 + t1123;
        const V t1127 = t1017 - t1018;
        const V t1128 = c[1] * t1127;
        const V t1129 = c[0] * t1016;
        const V t1130 = t990 - t1129;
        const V t1131 = t1130 + t1128;
        const V t1132 = t1016 + t990;
        // spectrum block of 13, multiplier 2
        const V t1133 = c[13] * t1132;
        const V t1134 = c[12] * t1132;
        // complex block of 3
        const V t1135 = t1019 - t972;
        // spectrum block of 13, multiplier 2
        const V t1136 = c[12] * t1135;
        const V t1137 = c[13] * t1135;
        // real block of 3, multiplier 2
        const V t1138 = c[1] * t1058;
        // real block of 3, multiplier 2
        const V t1139 = c[1] * t1037;
        // complex block of 2
        const V t1140 = t1138 + t1139;
        const V t1141 = t1138 - t1139;
        // spectrum block of 13, multiplier 2
        const V t1142 = c[18] * t1141;
        const V t1143 = c[19] * t1140;
        // real block of 53
        const V t1144 = c[92] * t381;
        const V t1145 = c[93] * t380;
        const V t1146 = t1144 - t1145;
        const V t1147 = c[92] * t380;
        const V t1148 = c[93] * t381;
        const V t1149 = t1148 + t1147;
        // complex block of 3
        const V t1150 = t1130 - t1128;
        // spectrum block of 13, multiplier 2
        const V t1151 = c[3] * t1150;
        const V t1152 = c[2] * t1150;
        // complex block of 3
        const V t1153 = t1123 - t1125;
        // spectrum block of 13, multiplier 2
        const V t1154 = c[2] * t1153;
        const V t1155 = c[3] * t1153;
        const V t1156 = t1154 - t1151;
        const V t1157 = t1155 + t1152;
        const V t1158 = t1149 - t1109;
        const V t1159 = t1115 + t1117;
        // spectrum block of 3
        const V t1160 = c[0] * t1159;
        const V t1161 = t1159 + t1158;
        const V t1162 = t1158 - t1160;
        // spectrum block of 13, multiplier 2
        const V t1163 = t1136 - t1133;
        const V t1164 = c[11] * t1126;
        const V t1165 = c[10] * t1131;
        const V t1166 = t1165 - t1164;
        // complex block of 3
        const V t1167 = t1166 + t1163;
        const V t1168 = c[0] * t1167;
        const V t1169 = t1166 - t1163;
        // spectrum block of 13, multiplier 2
        const V t1170 = t1137 + t1134;
        const V t1171 = c[11] * t1131;
        const V t1172 = c[10] * t1126;
        const V t1173 = t1172 + t1171;
        // complex block of 3
        const V t1174 = t1173 + t1170;
        const V t1175 = c[0] * t1174;
        const V t1176 = t1173 - t1170;
        // spectrum block of 13, multiplier 2
        const V t1177 = t1114 - t1120;
        // spectrum block of 3
        const V t1178 = c[0] * t1177;
        // spectrum block of 13, multiplier 2
        const V t1179 = c[5] * t1108;
        // spectrum block of 3
        const V t1180 = t1177 - t1179;
        const V t1181 = t1179 + t1178;
        // spectrum block of 3
        const V t1182 = c[23] * t1112;
        const V t1183 = t1118 - t1182;
        // spectrum block of 3
        const V t1184 = c[25] * t1113;
        const V t1185 = t1121 + t1184;
        // spectrum block of 3
        const V t1186 = t1162 - t1183;
        // spectrum block of 3
        const V t1187 = t1181 + t1185;
        // spectrum block of 2
        const V t1188 = t1186 - t1187;
        const V t1189 = t1186 + t1187;
        // spectrum block of 3
        const V t1190 = t1162 + t1183;
        // spectrum block of 3
        const V t1191 = t1185 - t1181;
        // spectrum block of 2
        const V t1192 = t1190 + t1191;
        const V t1193 = t1190 - t1191;
        // complex block of 3
        const V t1194 = t1157 - t1175;
        const V t1195 = c[1] * t1169;
        const V t1196 = t1194 + t1195;
        const V t1197 = t1194 - t1195;
        const V t1198 = t1156 - t1168;
        const V t1199 = c[1] * t1176;
        const V t1200 = t1198 - t1199;
        const V t1201 = t1198 + t1199;
        // spectrum block of 2
        const V t1202 = t1188 + t1200;
        io.minusIm(25, t1202);
        const V t1203 = t1188 - t1200;
        io.minusIm(17, t1203);
        // spectrum block of 2
        const V t1204 = t1189 + t1196;
        io.minusIm(4, t1204);
        const V t1205 = t1189 - t1196;
        io.im(13, t1205);
        // spectrum block of 2
        const V t1206 = t1192 + t1201;
        io.minusIm(7, t1206);
        const V t1207 = t1192 - t1201;
        io.im(15, t1207);
        // spectrum block of 2
        const V t1208 = t1193 + t1197;
        io.minusIm(6, t1208);
        const V t1209 = t1193 - t1197;
        io.minusIm(9, t1209);
        // complex block of 3
        const V t1210 = t1174 + t1157;
        // spectrum block of 2
        const V t1211 = t1161 - t1180;
        // spectrum block of 2
        const V t1212 = t1211 + t1210;
        io.minusIm(11, t1212);
        const V t1213 = t1211 - t1210;
        io.im(24, t1213);
        // complex block of 3
        const V t1214 = t1167 + t1156;
        // spectrum block of 2
        const V t1215 = t1161 + t1180;
        // spectrum block of 2
        const V t1216 = t1215 + t1214;
        io.im(10, t1216);
        const V t1217 = t1215 - t1214;
        io.im(16, t1217);
        // spectrum block of 13, multiplier 2
        const V t1218 = t1149 + t1107;
        io.im(1, t1218);
        // real block of 2
        const V t1219 = t1080 - t1076;
        // spectrum block of 13, multiplier 2
        const V t1220 = c[5] * t1219;
        const V t1221 = c[21] * t1084;
        const V t1222 = t1221 + t1142;
        // spectrum block of 3
        const V t1223 = t1222 + t1220;
        const V t1224 = c[0] * t1222;
        const V t1225 = t1224 - t1220;
        // complex block of 3
        const V t1226 = t1094 - t1103;
        // spectrum block of 13, multiplier 2
        const V t1227 = c[10] * t1226;
        const V t1228 = c[11] * t1226;
        // complex block of 3
        const V t1229 = t1093 - t1104;
        // spectrum block of 13, multiplier 2
        const V t1230 = c[11] * t1229;
        const V t1231 = c[10] * t1229;
        const V t1232 = c[12] * t1091;
        const V t1233 = c[13] * t1101;
        const V t1234 = t1232 - t1233;
        const V t1235 = c[12] * t1101;
        const V t1236 = c[13] * t1091;
        const V t1237 = t1236 + t1235;
        const V t1238 = t1227 + t1230;
        // complex block of 3
        const V t1239 = t1238 + t1234;
        const V t1240 = t1238 - t1234;
        // spectrum block of 13, multiplier 2
        const V t1241 = t1231 - t1228;
        // complex block of 3
        const V t1242 = t1237 - t1241;
        const V t1243 = t1241 + t1237;
        // complex block of 3
        const V t1244 = t1103 + t1094;
        // spectrum block of 13, multiplier 2
        const V t1245 = c[3] * t1244;
        const V t1246 = c[2] * t1244;
        // complex block of 3
        const V t1247 = t1093 + t1104;
        // spectrum block of 13, multiplier 2
        const V t1248 = c[2] * t1247;
        const V t1249 = c[3] * t1247;
        const V t1250 = t1245 + t1248;
        const V t1251 = t1249 - t1246;
        const V t1252 = c[4] * t1082;
        const V t1253 = t1146 - t1252;
        const V t1254 = c[20] * t1083;
        const V t1255 = t1254 + t1143;
        // spectrum block of 3
        const V t1256 = t1255 + t1253;
        const V t1257 = c[0] * t1255;
        const V t1258 = t1253 - t1257;
        const V t1259 = c[22] * t1140;
        const V t1260 = c[23] * t1083;
        const V t1261 = t1259 - t1260;
        // spectrum block of 3
        const V t1262 = c[25] * t1084;
        const V t1263 = c[24] * t1141;
        const V t1264 = t1262 - t1263;
        // spectrum block of 3
        const V t1265 = t1258 - t1261;
        // spectrum block of 3
        const V t1266 = t1225 + t1264;
        // spectrum block of 2
        const V t1267 = t1265 + t1266;
        const V t1268 = t1265 - t1266;
        // spectrum block of 3
        const V t1269 = t1258 + t1261;
        // spectrum block of 3
        const V t1270 = t1225 - t1264;
        // spectrum block of 2
        const V t1271 = t1269 + t1270;
        const V t1272 = t1269 - t1270;
        // complex block of 3
        const V t1273 = c[0] * t1242;
        const V t1274 = t1251 - t1273;
        const V t1275 = c[0] * t1239;
        const V t1276 = t1250 - t1275;
        const V t1277 = c[1] * t1243;
        const V t1278 = c[1] * t1240;
        const V t1279 = t1274 + t1278;
        // spectrum block of 2
        const V t1280 = t1268 + t1279;
        io.minusIm(2, t1280);
        const V t1281 = t1268 - t1279;
        io.minusIm(20, t1281);
        // complex block of 3
        const V t1282 = t1276 + t1277;
        // spectrum block of 2
        const V t1283 = t1267 + t1282;
        io.im(14, t1283);
        const V t1284 = t1267 - t1282;
        io.im(18, t1284);
        // complex block of 3
        const V t1285 = t1274 - t1278;
        // spectrum block of 2
        const V t1286 = t1272 + t1285;
        io.minusIm(3, t1286);
        const V t1287 = t1272 - t1285;
        io.im(22, t1287);
        // complex block of 3
        const V t1288 = t1276 - t1277;
        // spectrum block of 2
        const V t1289 = t1271 + t1288;
        io.im(23, t1289);
        const V t1290 = t1271 - t1288;
        io.minusIm(19, t1290);
        // complex block of 3
        const V t1291 = t1242 + t1251;
        // spectrum block of 2
        const V t1292 = t1256 + t1223;
        // spectrum block of 2
        const V t1293 = t1292 + t1291;
        io.im(21, t1293);
        const V t1294 = t1292 - t1291;
        io.im(12, t1294);
        // complex block of 3
        const V t1295 = t1239 + t1250;
        // spectrum block of 2
        const V t1296 = t1256 - t1223;
        // spectrum block of 2
        const V t1297 = t1296 + t1295;
        io.im(5, t1297);
        const V t1298 = t1296 - t1295;
        io.im(8, t1298);
        // spectrum block of 13, multiplier 2
        const V t1299 = t1146 + t1082;
        io.minusIm(26, t1299);
    }
};

}  // namespace zulg
