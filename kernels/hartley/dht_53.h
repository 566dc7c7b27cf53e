// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 53.
// Hartley transform of 53 points, form I.
// 446 additions, 446 subtractions, 450 multiplications (503 with `scale`); 100 constants; 84 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<53> {
    static constexpr int steps = 1395;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.1741386011521359,  // c[2]: -P[3] of 13
        0.5751407294740031,  // c[3]: -Q[3] of 13
        0.08333333333333333,  // c[4]: 1/12
        0.3004626062886658,  // c[5]: -beta of 13
        0.6007253775544544,  // c[6]: -Q[1] of 13
        0.015496188988565054,  // c[7]: P[1] of 13
        0.5084294662830964,  // c[8]: -Q[5] of 13
        0.3203288761978803,  // c[9]: P[5] of 13
        0.5242266395265821,  // c[10]: P[2] of 13
        0.29376443202296976,  // c[11]: -Q[2] of 13
        0.42763404682657274,  // c[12]: P[4] of 13
        0.42218506973345193,  // c[13]: -Q[4] of 13
        0.5279915321544383,  // c[14]: -Q[1] of 13
        0.2869425954512852,  // c[15]: P[1] of 13
        0.280148395734785,  // c[16]: Q[5] of 13
        0.5316276774946329,  // c[17]: P[5] of 13
        0.5165207806234897,  // c[18]: P[2] of 13
        0.3071113711590828,  // c[19]: Q[2] of 13
        0.15180597207438773,  // c[20]: P[4] of 13
        0.5814344829416822,  // c[21]: Q[4] of 13
        0.31378278210316923,  // c[22]: -Q[1] of 13
        0.5124953431658732,  // c[23]: P[1] of 13
        0.02319821121153658,  // c[24]: Q[5] of 13
        0.6004772719326653,  // c[25]: -P[5] of 13
        0.75,  // c[26]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[27]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.15924941320823024,  // c[28]: -Q[4] of 13
        0.6008758031820526,  // c[29]: -Q[2] of 13
        0.007705858903092426,  // c[30]: P[2] of 13
        0.5794400189009605,  // c[31]: -P[4] of 13
        0.5018097763375671,  // c[32]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[33]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[34]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[35]: sin 2 pi 1/3 times -Q[2] of 13
        0.27552946855879373,  // c[36]: -P[16] of 53
        0.14060198882334973,  // c[37]: -P[10] of 53
        0.2421434442697633,  // c[38]: Q[10] of 53
        0.04985858822323415,  // c[39]: Q[16] of 53
        0.20532068893261132,  // c[40]: P[12] of 53
        0.09172503255893466,  // c[41]: P[14] of 53
        0.1903832491584887,  // c[42]: Q[12] of 53
        0.2645541253996386,  // c[43]: -Q[14] of 53
        0.04799540743714245,  // c[44]: P[24] of 53
        0.2471500091242084,  // c[45]: P[2] of 53
        0.13160258300584013,  // c[46]: -Q[2] of 53
        0.2758601234844355,  // c[47]: -Q[24] of 53
        0.02515113381908794,  // c[48]: P[8] of 53
        0.27887234952845297,  // c[49]: Q[8] of 53
        0.2519381469601781,  // c[50]: P[18] of 53
        0.12218648440059575,  // c[51]: Q[18] of 53
        0.049641770378907886,  // c[52]: P[4] of 53
        0.2755686148630738,  // c[53]: Q[4] of 53
        0.17875918651855408,  // c[54]: P[22] of 53
        0.21551686731931244,  // c[55]: Q[22] of 53
        0.005568976607062611,  // c[56]: P[20] of 53
        0.279948840618166,  // c[57]: Q[20] of 53
        0.18509085703434766,  // c[58]: P[6] of 53
        0.21010412063116707,  // c[59]: Q[6] of 53
        0.038836925551200704,  // c[60]: Q[13] of 53
        0.27729778231647617,  // c[61]: P[13] of 53
        0.23931566428755777,  // c[62]: cos 2 pi 11/52
        0.970941817426052,  // c[63]: sin 2 pi 11/52
        0.15489151598012768,  // c[64]: -Q[11] of 53
        0.23326162380743898,  // c[65]: -P[11] of 53
        0.2603347814141748,  // c[66]: -Q[15] of 53
        0.10309300873453617,  // c[67]: P[15] of 53
        0.8229838658936564,  // c[68]: cos 2 pi 5/52
        0.5680647467311558,  // c[69]: sin 2 pi 5/52
        0.992708874098054,  // c[70]: cos 2 pi 1/52
        0.12053668025532305,  // c[71]: sin 2 pi 1/52
        0.6631226582407952,  // c[72]: cos 2 pi 7/52
        0.7485107481711011,  // c[73]: sin 2 pi 7/52
        0.46472317204376856,  // c[74]: cos 2 pi 9/52
        0.8854560256532099,  // c[75]: sin 2 pi 9/52
        0.9350162426854148,  // c[76]: cos 2 pi 3/52
        0.3546048870425356,  // c[77]: sin 2 pi 3/52
        0.27934484277921784,  // c[78]: -Q[3] of 53
        0.01920483471835668,  // c[79]: -P[3] of 53
        0.2795810907749542,  // c[80]: Q[23] of 53
        0.015387675100292094,  // c[81]: -P[23] of 53
        0.2786708556034366,  // c[82]: Q[7] of 53
        0.02729324277461261,  // c[83]: -P[7] of 53
        0.26661085340441376,  // c[84]: Q[19] of 53
        0.0855629575860694,  // c[85]: -P[19] of 53
        0.27926923264549397,  // c[86]: -P[9] of 53
        0.02027467783966699,  // c[87]: Q[9] of 53
        0.062487064695808406,  // c[88]: -P[17] of 53
        0.27294272954157833,  // c[89]: -Q[17] of 53
        0.2535110589592131,  // c[90]: -P[1] of 53
        0.11888864474491956,  // c[91]: -Q[1] of 53
        0.08550180730497182,  // c[92]: -P[5] of 53
        0.26663047052332334,  // c[93]: Q[5] of 53
        0.2608612063201607,  // c[94]: P[21] of 53
        0.10175361370042776,  // c[95]: -Q[21] of 53
        0.26811627900458906,  // c[96]: P[25] of 53
        0.08072191645791539,  // c[97]: -Q[25] of 53
        0.019230769230769232,  // c[98]: 1/52
        0.14000211325539458,  // c[99]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x52 = io.in(52);
        const V t0 = x1 + x52;
        const V t1 = x1 - x52;
        const V x2 = io.in(2);
        const V x51 = io.in(51);
        const V t2 = x2 + x51;
        const V x5 = io.in(5);
        const V x48 = io.in(48);
        const V t3 = x5 + x48;
        const V t4 = x5 - x48;
        const V x12 = io.in(12);
        const V x41 = io.in(41);
        const V t5 = x12 + x41;
        const V t6 = x12 - x41;
        const V x18 = io.in(18);
        const V x35 = io.in(35);
        const V t7 = x18 + x35;
        const V t8 = x18 - x35;
        const V x21 = io.in(21);
        const V x32 = io.in(32);
        const V t9 = x21 + x32;
        const V t10 = x21 - x32;
        const V x22 = io.in(22);
        const V x31 = io.in(31);
        const V t11 = x22 + x31;
        const V t12 = x22 - x31;
        const V x23 = io.in(23);
        const V x30 = io.in(30);
        const V t13 = x23 - x30;
        // real block of 3
        const V t14 = t5 + t9;
        // real block of 3
        const V t15 = t7 + t2;
        // real block of 3
        const V t16 = t11 + t3;
        // real block of 3
        const V t17 = t12 + t6;
        // real block of 3
        const V t18 = t4 + t8;
        // real block of 3
        const V t19 = t10 + t13;
        // input stage
        const V x3 = io.in(3);
        const V x50 = io.in(50);
        const V t20 = x3 + x50;
        const V x26 = io.in(26);
        const V x27 = io.in(27);
        const V t21 = x26 + x27;
        const V t22 = x3 - x50;
        const V t23 = x26 - x27;
        // real block of 3
        const V t24 = t20 + t21;
        // input stage
        const V x8 = io.in(8);
        const V x45 = io.in(45);
        const V t25 = x8 + x45;
        const V t26 = x8 - x45;
        const V x14 = io.in(14);
        const V x39 = io.in(39);
        const V t27 = x14 - x39;
        const V x20 = io.in(20);
        const V x33 = io.in(33);
        const V t28 = x20 - x33;
        const V t29 = x14 + x39;
        const V t30 = x20 + x33;
        // real block of 3
        const V t31 = t28 - t27;
        // input stage
        const V x19 = io.in(19);
        const V x34 = io.in(34);
        const V t32 = x19 + x34;
        const V t33 = x19 - x34;
        // real block of 3
        const V t34 = t5 - t9;
        const V t35 = c[1] * t34;
        const V t36 = t14 + t29;
        const V t37 = c[0] * t14;
        const V t38 = t29 - t37;
        // real block of 3
        const V t39 = t7 - t2;
        const V t40 = c[1] * t39;
        const V t41 = t15 + t25;
        const V t42 = c[0] * t15;
        const V t43 = t25 - t42;
        // real block of 3
        const V t44 = t11 - t3;
        const V t45 = c[1] * t44;
        const V t46 = t16 + t32;
        const V t47 = c[0] * t16;
        const V t48 = t32 - t47;
        // real block of 3
        const V t49 = t20 - t21;
        const V t50 = c[1] * t49;
        const V t51 = t24 + t30;
        const V t52 = c[0] * t24;
        const V t53 = t30 - t52;
        // real block of 3
        const V t54 = t6 - t12;
        const V t55 = c[1] * t54;
        const V t56 = t17 + t26;
        const V t57 = c[0] * t17;
        const V t58 = t57 - t26;
        // real block of 3
        const V t59 = t28 + t27;
        const V t60 = c[1] * t59;
        const V t61 = t31 + t22;
        const V t62 = c[0] * t31;
        const V t63 = t22 - t62;
        // real block of 3
        const V t64 = t8 - t4;
        const V t65 = c[1] * t64;
        const V t66 = t23 - t18;
        const V t67 = c[0] * t18;
        const V t68 = t67 + t23;
        // real block of 3
        const V t69 = t13 - t10;
        const V t70 = c[1] * t69;
        const V t71 = t33 - t19;
        const V t72 = c[0] * t19;
        const V t73 = t72 + t33;
        // input stage
        const V t74 = x2 - x51;
        const V t75 = x23 + x30;
        // real block of 2
        const V t76 = t36 + t46;
        // real block of 2
        const V t77 = t41 + t51;
        // real block of 2
        const V t78 = t76 + t77;
        const V t79 = t76 - t77;
        // real block of 13, multiplier 2
        const V t80 = c[4] * t78;
        const V t81 = c[5] * t79;
        // real block of 2
        const V t82 = t36 - t46;
        // real block of 13, multiplier 2
        const V t83 = c[2] * t82;
        const V t84 = c[3] * t82;
        // real block of 2
        const V t85 = t41 - t51;
        // real block of 13, multiplier 2
        const V t86 = c[3] * t85;
        const V t87 = c[2] * t85;
        // complex block of 2
        const V t88 = t38 + t48;
        // complex block of 2
        const V t89 = t43 + t53;
        // complex block of 2
        const V t90 = t88 + t89;
        const V t91 = t88 - t89;
        // real block of 13, multiplier 2
        const V t92 = c[10] * t91;
        const V t93 = c[11] * t91;
        const V t94 = c[12] * t90;
        const V t95 = c[13] * t90;
        // complex block of 2
        const V t96 = t35 + t45;
        // complex block of 2
        const V t97 = t40 + t50;
        // complex block of 2
        const V t98 = t96 + t97;
        const V t99 = t97 - t96;
        // real block of 13, multiplier 2
        const V t100 = c[11] * t99;
        const V t101 = c[10] * t99;
        const V t102 = c[13] * t98;
        const V t103 = c[12] * t98;
        // complex block of 2
        const V t104 = t38 - t48;
        // complex block of 2
        const V t105 = t50 - t40;
        // complex block of 2
        const V t106 = t104 - t105;
        const V t107 = t104 + t105;
        // complex block of 2
        const V t108 = t45 - t35;
        // complex block of 2
        const V t109 = t43 - t53;
        // complex block of 2
        const V t110 = t108 + t109;
        const V t111 = t108 - t109;
        // real block of 13, multiplier 2
        const V t112 = c[14] * t111;
        const V t113 = c[15] * t107;
        const V t114 = t113 + t112;
        const V t115 = c[14] * t107;
        const V t116 = c[15] * t111;
        const V t117 = t116 - t115;
        const V t118 = c[16] * t110;
        const V t119 = c[17] * t106;
        const V t120 = t119 + t118;
        const V t121 = c[16] * t106;
        const V t122 = c[17] * t110;
        const V t123 = t121 - t122;
        // real block of 2
        const V t124 = t66 - t56;
        // real block of 2
        const V t125 = t61 + t71;
        // real block of 2
        const V t126 = t124 + t125;
        const V t127 = t124 - t125;
        // real block of 13
        const V t128 = c[4] * t126;
        const V t129 = c[5] * t127;
        // real block of 2
        const V t130 = t56 + t66;
        // real block of 13
        const V t131 = c[3] * t130;
        const V t132 = c[2] * t130;
        // real block of 2
        const V t133 = t61 - t71;
        // real block of 13
        const V t134 = c[2] * t133;
        const V t135 = c[3] * t133;
        // complex block of 2
        const V t136 = t58 + t68;
        // complex block of 2
        const V t137 = t63 + t73;
        // complex block of 2
        const V t138 = t136 + t137;
        const V t139 = t136 - t137;
        // real block of 13
        const V t140 = c[18] * t139;
        const V t141 = c[19] * t139;
        const V t142 = c[20] * t138;
        const V t143 = c[21] * t138;
        // complex block of 2
        const V t144 = t55 + t65;
        // complex block of 2
        const V t145 = t60 + t70;
        // complex block of 2
        const V t146 = t144 + t145;
        const V t147 = t145 - t144;
        // real block of 13
        const V t148 = c[19] * t147;
        const V t149 = c[18] * t147;
        const V t150 = c[21] * t146;
        const V t151 = c[20] * t146;
        // complex block of 2
        const V t152 = t58 - t68;
        // complex block of 2
        const V t153 = t70 - t60;
        // complex block of 2
        const V t154 = t152 - t153;
        const V t155 = t152 + t153;
        // complex block of 2
        const V t156 = t65 - t55;
        // complex block of 2
        const V t157 = t63 - t73;
        // complex block of 2
        const V t158 = t156 + t157;
        const V t159 = t156 - t157;
        // real block of 13
        const V t160 = c[22] * t159;
        const V t161 = c[23] * t155;
        const V t162 = t161 + t160;
        const V t163 = c[22] * t155;
        const V t164 = c[23] * t159;
        const V t165 = t164 - t163;
        const V t166 = c[24] * t158;
        const V t167 = c[25] * t154;
        const V t168 = t166 - t167;
        const V t169 = c[24] * t154;
        const V t170 = c[25] * t158;
        const V t171 = t170 + t169;
        // input stage
        const V x4 = io.in(4);
        const V x49 = io.in(49);
        const V t172 = x4 + x49;
        const V x6 = io.in(6);
        const V x47 = io.in(47);
        const V t173 = x6 + x47;
        const V x11 = io.in(11);
        const V x42 = io.in(42);
        const V t174 = x11 + x42;
        const V t175 = x6 - x47;
        const V t176 = x11 - x42;
        // real block of 3
        const V t177 = t174 + t173;
        // input stage
        const V t178 = x4 - x49;
        // real block of 3
        const V t179 = t174 - t173;
        const V t180 = c[1] * t179;
        const V t181 = t177 + t172;
        const V t182 = c[0] * t177;
        const V t183 = t172 - t182;
        // real block of 3
        const V t184 = t176 + t175;
        const V t185 = c[0] * t184;
        const V t186 = t175 - t176;
        const V t187 = c[1] * t186;
        // input stage
        const V x7 = io.in(7);
        const V x46 = io.in(46);
        const V t188 = x7 + x46;
        const V x10 = io.in(10);
        const V x43 = io.in(43);
        const V t189 = x10 + x43;
        const V t190 = x7 - x46;
        const V t191 = x10 - x43;
        // real block of 3
        const V t192 = t189 + t188;
        // input stage
        const V x25 = io.in(25);
        const V x28 = io.in(28);
        const V t193 = x25 + x28;
        const V t194 = x25 - x28;
        // real block of 3
        const V t195 = t189 - t188;
        const V t196 = c[1] * t195;
        const V t197 = t192 + t193;
        const V t198 = c[0] * t192;
        const V t199 = t193 - t198;
        // real block of 3
        const V t200 = t191 - t190;
        const V t201 = c[0] * t200;
        const V t202 = t191 + t190;
        const V t203 = c[1] * t202;
        // input stage
        const V x9 = io.in(9);
        const V x44 = io.in(44);
        const V t204 = x9 + x44;
        const V x24 = io.in(24);
        const V x29 = io.in(29);
        const V t205 = x24 + x29;
        const V t206 = x9 - x44;
        const V t207 = x24 - x29;
        // real block of 3
        const V t208 = t205 + t204;
        // input stage
        const V x13 = io.in(13);
        const V x40 = io.in(40);
        const V t209 = x13 + x40;
        const V t210 = x13 - x40;
        // real block of 3
        const V t211 = t205 - t204;
        const V t212 = c[1] * t211;
        const V t213 = t208 + t209;
        const V t214 = c[0] * t208;
        const V t215 = t209 - t214;
        // real block of 3
        const V t216 = t207 - t206;
        const V t217 = c[0] * t216;
        const V t218 = t207 + t206;
        const V t219 = c[1] * t218;
        // input stage
        const V x15 = io.in(15);
        const V x38 = io.in(38);
        const V t220 = x15 + x38;
        const V x16 = io.in(16);
        const V x37 = io.in(37);
        const V t221 = x16 + x37;
        const V t222 = x15 - x38;
        const V t223 = x16 - x37;
        // real block of 3
        const V t224 = t221 + t220;
        // input stage
        const V x17 = io.in(17);
        const V x36 = io.in(36);
        const V t225 = x17 + x36;
        const V t226 = x17 - x36;
        // real block of 3
        const V t227 = t221 - t220;
        const V t228 = c[1] * t227;
        const V t229 = t224 + t225;
        const V t230 = c[0] * t224;
        const V t231 = t225 - t230;
        // real block of 3
        const V t232 = t223 + t222;
        const V t233 = c[0] * t232;
        const V t234 = t223 - t222;
        const V t235 = c[1] * t234;
        // real block of 2
        const V t236 = t181 + t213;
        // real block of 2
        const V t237 = t197 + t229;
        // real block of 2
        const V t238 = t236 + t237;
        const V t239 = t236 - t237;
        // real block of 13, multiplier 2
        const V t240 = c[4] * t238;
        const V t241 = c[5] * t239;
        // real block of 2
        const V t242 = t181 - t213;
        // real block of 13, multiplier 2
        const V t243 = c[2] * t242;
        const V t244 = c[3] * t242;
        // real block of 2
        const V t245 = t197 - t229;
        // real block of 13, multiplier 2
        const V t246 = c[3] * t245;
        const V t247 = c[2] * t245;
        // complex block of 2
        const V t248 = t183 + t215;
        // complex block of 2
        const V t249 = t199 + t231;
        // complex block of 2
        const V t250 = t248 + t249;
        const V t251 = t248 - t249;
        // real block of 13, multiplier 2
        const V t252 = c[10] * t251;
        const V t253 = c[11] * t251;
        const V t254 = c[12] * t250;
        const V t255 = c[13] * t250;
        // complex block of 2
        const V t256 = t180 + t212;
        // complex block of 2
        const V t257 = t196 + t228;
        // complex block of 2
        const V t258 = t256 + t257;
        const V t259 = t257 - t256;
        // real block of 13, multiplier 2
        const V t260 = c[11] * t259;
        const V t261 = c[10] * t259;
        const V t262 = c[13] * t258;
        const V t263 = c[12] * t258;
        // complex block of 2
        const V t264 = t183 - t215;
        // complex block of 2
        const V t265 = t228 - t196;
        // complex block of 2
        const V t266 = t264 - t265;
        const V t267 = t264 + t265;
        // complex block of 2
        const V t268 = t212 - t180;
        // complex block of 2
        const V t269 = t199 - t231;
        // complex block of 2
        const V t270 = t268 + t269;
        const V t271 = t268 - t269;
        // real block of 13, multiplier 2
        const V t272 = c[14] * t271;
        const V t273 = c[15] * t267;
        const V t274 = t273 + t272;
        const V t275 = c[14] * t267;
        const V t276 = c[15] * t271;
        const V t277 = t276 - t275;
        const V t278 = c[16] * t270;
        const V t279 = c[17] * t266;
        const V t280 = t279 + t278;
        const V t281 = c[16] * t266;
        const V t282 = c[17] * t270;
        const V t283 = t281 - t282;
        // real block of 3
        const V t284 = t184 + t178;
        // real block of 3
        const V t285 = t216 + t210;
        // real block of 2
        const V t286 = t285 - t284;
        // real block of 3
        const V t287 = t200 - t194;
        // real block of 3
        const V t288 = t232 - t226;
        // real block of 2
        const V t289 = t287 + t288;
        // real block of 2
        const V t290 = t284 + t285;
        // real block of 2
        const V t291 = t287 - t288;
        // real block of 2
        const V t292 = t286 + t289;
        const V t293 = t286 - t289;
        // real block of 3
        const V t294 = t185 - t178;
        // real block of 3
        const V t295 = t210 - t217;
        // complex block of 2
        const V t296 = t294 + t295;
        const V t297 = t294 - t295;
        // real block of 3
        const V t298 = t194 + t201;
        // real block of 3
        const V t299 = t226 + t233;
        // complex block of 2
        const V t300 = t298 + t299;
        const V t301 = t299 - t298;
        // complex block of 2
        const V t302 = t219 - t187;
        // complex block of 2
        const V t303 = t235 - t203;
        // complex block of 2
        const V t304 = t296 - t300;
        const V t305 = t296 + t300;
        // complex block of 2
        const V t306 = t297 - t303;
        // real block of 13
        const V t307 = c[25] * t306;
        const V t308 = c[24] * t306;
        // complex block of 2
        const V t309 = t302 + t301;
        // real block of 13
        const V t310 = c[24] * t309;
        const V t311 = c[25] * t309;
        // complex block of 2
        const V t312 = t297 + t303;
        // real block of 13
        const V t313 = c[23] * t312;
        const V t314 = c[22] * t312;
        // complex block of 2
        const V t315 = t302 - t301;
        // real block of 13
        const V t316 = c[22] * t315;
        const V t317 = c[23] * t315;
        // complex block of 2
        const V t318 = t187 + t219;
        // complex block of 2
        const V t319 = t203 + t235;
        // complex block of 2
        const V t320 = t318 + t319;
        const V t321 = t319 - t318;
        // real block of 13
        const V t322 = c[19] * t321;
        const V t323 = c[21] * t320;
        // real block of 13, multiplier 2
        const V t324 = t0 + t238;
        // real block of 13, multiplier 2
        const V t325 = t75 + t78;
        // real block of 2
        const V t326 = t324 + t325;
        const V t327 = t324 - t325;
        // spectrum block of 53
        const V t328 = c[98] * t326;
        // real block of 13, multiplier 2
        const V t329 = t0 - t240;
        // spectrum block of 2
        const V t330 = t329 - t241;
        const V t331 = t329 + t241;
        // real block of 13, multiplier 2
        const V t332 = t252 - t260;
        const V t333 = t254 - t262;
        // complex block of 2
        const V t334 = t333 + t332;
        const V t335 = t333 - t332;
        // spectrum block of 3, multiplier 2
        const V t336 = t334 + t330;
        const V t337 = c[0] * t334;
        const V t338 = t330 - t337;
        // spectrum block of 3, multiplier 2
        const V t339 = t335 + t331;
        const V t340 = c[0] * t335;
        const V t341 = t331 - t340;
        // real block of 13, multiplier 2
        const V t342 = t261 + t253;
        const V t343 = t263 + t255;
        // complex block of 2
        const V t344 = t342 - t343;
        const V t345 = t343 + t342;
        // spectrum block of 3, multiplier 2
        const V t346 = c[1] * t344;
        // spectrum block of 3, multiplier 2
        const V t347 = c[1] * t345;
        // real block of 13, multiplier 2
        const V t348 = t246 - t243;
        // complex block of 2
        const V t349 = t274 + t280;
        // mirrored skew block of 6
        const V t350 = c[0] * t349;
        // spectrum block of 3, multiplier 2
        const V t351 = c[26] * t349;
        // complex block of 2
        const V t352 = t277 - t283;
        // mirrored skew block of 6
        const V t353 = c[1] * t352;
        // spectrum block of 3, multiplier 2
        const V t354 = c[27] * t352;
        // mirrored skew block of 6
        const V t355 = t353 + t350;
        // spectrum block of 3, multiplier 2
        const V t356 = t355 + t348;
        const V t357 = c[0] * t355;
        const V t358 = t354 - t351;
        // real block of 13, multiplier 2
        const V t359 = t247 + t244;
        // complex block of 2
        const V t360 = t280 - t274;
        // spectrum block of 3, multiplier 2
        const V t361 = c[1] * t360;
        // complex block of 2
        const V t362 = t277 + t283;
        // spectrum block of 3, multiplier 2
        const V t363 = c[0] * t362;
        const V t364 = t362 - t359;
        const V t365 = t359 + t363;
        const V t366 = t361 - t365;
        const V t367 = t365 + t361;
        // real block of 13, multiplier 2
        const V t368 = t75 - t80;
        // spectrum block of 2
        const V t369 = t368 - t81;
        const V t370 = t368 + t81;
        // real block of 13, multiplier 2
        const V t371 = t92 - t100;
        const V t372 = t94 - t102;
        // complex block of 2
        const V t373 = t372 + t371;
        const V t374 = t372 - t371;
        // spectrum block of 3, multiplier 2
        const V t375 = t373 + t369;
        const V t376 = c[0] * t373;
        const V t377 = t369 - t376;
        // spectrum block of 3, multiplier 2
        const V t378 = t374 + t370;
        const V t379 = c[0] * t374;
        const V t380 = t370 - t379;
        // real block of 13, multiplier 2
        const V t381 = t101 + t93;
        const V t382 = t103 + t95;
        // complex block of 2
        const V t383 = t381 - t382;
        const V t384 = t382 + t381;
        // spectrum block of 3, multiplier 2
        const V t385 = c[1] * t383;
        // spectrum block of 3, multiplier 2
        const V t386 = c[1] * t384;
        // real block of 13, multiplier 2
        const V t387 = t86 - t83;
        // complex block of 2
        const V t388 = t114 + t120;
        // mirrored skew block of 6
        const V t389 = c[0] * t388;
        // spectrum block of 3, multiplier 2
        const V t390 = c[26] * t388;
        // complex block of 2
        const V t391 = t117 - t123;
        // mirrored skew block of 6
        const V t392 = c[1] * t391;
        // spectrum block of 3, multiplier 2
        const V t393 = c[27] * t391;
        // mirrored skew block of 6
        const V t394 = t392 + t389;
        // spectrum block of 3, multiplier 2
        const V t395 = t394 + t387;
        const V t396 = c[0] * t394;
        const V t397 = t393 - t390;
        // real block of 13, multiplier 2
        const V t398 = t87 + t84;
        // complex block of 2
        const V t399 = t120 - t114;
        // spectrum block of 3, multiplier 2
        const V t400 = c[1] * t399;
        // complex block of 2
        const V t401 = t117 + t123;
        // spectrum block of 3, multiplier 2
        const V t402 = c[0] * t401;
        const V t403 = t401 - t398;
        const V t404 = t398 + t402;
        const V t405 = t400 - t404;
        const V t406 = t404 + t400;
        // spectrum block of 3, multiplier 2
        const V t407 = t338 - t346;
        // spectrum block of 3, multiplier 2
        const V t408 = t377 - t385;
        // complex block of 2
        const V t409 = t407 + t408;
        const V t410 = t407 - t408;
        const V t411 = t367 + t406;
        // spectrum block of 53
        const V t412 = c[36] * t411;
        // complex block of 2
        const V t413 = t367 - t406;
        // spectrum block of 53
        const V t414 = c[37] * t413;
        const V t415 = c[38] * t413;
        const V t416 = c[37] * t410;
        const V t417 = c[38] * t410;
        const V t418 = t414 + t417;
        const V t419 = c[39] * t411;
        const V t420 = c[36] * t409;
        const V t421 = c[39] * t409;
        const V t422 = t421 - t412;
        // spectrum block of 3, multiplier 2
        const V t423 = t338 + t346;
        // spectrum block of 3, multiplier 2
        const V t424 = t377 + t385;
        // complex block of 2
        const V t425 = t423 + t424;
        const V t426 = t423 - t424;
        const V t427 = t366 + t405;
        // spectrum block of 53
        const V t428 = c[40] * t427;
        // complex block of 2
        const V t429 = t366 - t405;
        // spectrum block of 53
        const V t430 = c[41] * t429;
        const V t431 = c[42] * t427;
        const V t432 = c[40] * t425;
        const V t433 = c[42] * t425;
        const V t434 = t428 + t433;
        const V t435 = c[43] * t429;
        const V t436 = c[41] * t426;
        const V t437 = c[43] * t426;
        const V t438 = t430 + t437;
        // spectrum block of 3, multiplier 2
        const V t439 = t341 + t347;
        // spectrum block of 3, multiplier 2
        const V t440 = t380 + t386;
        // complex block of 2
        const V t441 = t439 + t440;
        const V t442 = t439 - t440;
        const V t443 = t356 + t395;
        // spectrum block of 53
        const V t444 = c[44] * t443;
        // complex block of 2
        const V t445 = t395 - t356;
        // spectrum block of 53
        const V t446 = c[45] * t445;
        const V t447 = c[46] * t445;
        const V t448 = c[45] * t442;
        const V t449 = c[46] * t442;
        const V t450 = t446 + t449;
        const V t451 = c[47] * t443;
        const V t452 = c[44] * t441;
        const V t453 = c[47] * t441;
        const V t454 = t444 + t453;
        // spectrum block of 3, multiplier 2
        const V t455 = t341 - t347;
        // spectrum block of 3, multiplier 2
        const V t456 = t380 - t386;
        // complex block of 2
        const V t457 = t455 + t456;
        const V t458 = t455 - t456;
        // spectrum block of 53
        const V t459 = c[48] * t457;
        const V t460 = c[49] * t457;
        const V t461 = c[50] * t458;
        const V t462 = c[51] * t458;
        // spectrum block of 3, multiplier 2
        const V t463 = t348 - t357;
        const V t464 = t463 - t358;
        // spectrum block of 3, multiplier 2
        const V t465 = t387 - t396;
        const V t466 = t465 - t397;
        // spectrum block of 3, multiplier 2
        const V t467 = t463 + t358;
        // spectrum block of 3, multiplier 2
        const V t468 = t465 + t397;
        // complex block of 2
        const V t469 = t464 + t466;
        // spectrum block of 53
        const V t470 = c[48] * t469;
        // complex block of 2
        const V t471 = t466 - t464;
        // spectrum block of 53
        const V t472 = c[50] * t471;
        // complex block of 2
        const V t473 = t336 + t375;
        // spectrum block of 53
        const V t474 = c[52] * t473;
        const V t475 = c[53] * t473;
        // complex block of 2
        const V t476 = t364 + t403;
        // spectrum block of 53
        const V t477 = c[53] * t476;
        const V t478 = c[52] * t476;
        // complex block of 2
        const V t479 = t336 - t375;
        // spectrum block of 53
        const V t480 = c[54] * t479;
        const V t481 = c[55] * t479;
        // complex block of 2
        const V t482 = t364 - t403;
        // spectrum block of 53
        const V t483 = c[55] * t482;
        const V t484 = c[54] * t482;
        // complex block of 2
        const V t485 = t339 + t378;
        // spectrum block of 53
        const V t486 = c[56] * t485;
        const V t487 = c[57] * t485;
        // complex block of 2
        const V t488 = t339 - t378;
        // spectrum block of 53
        const V t489 = c[58] * t488;
        const V t490 = c[59] * t488;
        // real block of 13
        const V t491 = t1 + t292;
        // spectrum block of 53
        const V t492 = c[60] * t491;
        const V t493 = c[61] * t491;
        // real block of 13
        const V t494 = c[4] * t292;
        const V t495 = t1 - t494;
        const V t496 = c[5] * t293;
        // spectrum block of 2
        const V t497 = t495 + t496;
        const V t498 = t495 - t496;
        // real block of 13
        const V t499 = t313 + t316;
        const V t500 = t310 - t307;
        // complex block of 2
        const V t501 = t500 - t499;
        const V t502 = t499 + t500;
        // real block of 13
        const V t503 = t317 - t314;
        const V t504 = t311 + t308;
        // complex block of 2
        const V t505 = t503 + t504;
        const V t506 = t503 - t504;
        // real block of 13
        const V t507 = c[2] * t290;
        const V t508 = c[3] * t291;
        const V t509 = t508 + t507;
        // mirrored skew block of 6
        const V t510 = c[0] * t502;
        const V t511 = c[1] * t506;
        const V t512 = t511 + t510;
        // spectrum block of 3, multiplier 2
        const V t513 = t505 + t509;
        const V t514 = c[0] * t505;
        const V t515 = c[1] * t501;
        // spectrum block of 3, multiplier 2
        const V t516 = c[27] * t506;
        const V t517 = c[26] * t502;
        // real block of 13
        const V t518 = c[18] * t305;
        const V t519 = t518 + t322;
        const V t520 = c[20] * t304;
        const V t521 = t520 + t323;
        // complex block of 2
        const V t522 = t521 + t519;
        // spectrum block of 3, multiplier 2
        const V t523 = c[0] * t522;
        // complex block of 2
        const V t524 = t521 - t519;
        // spectrum block of 3, multiplier 2
        const V t525 = c[0] * t524;
        // real block of 13
        const V t526 = c[19] * t305;
        const V t527 = c[18] * t321;
        const V t528 = t526 - t527;
        const V t529 = c[21] * t304;
        const V t530 = c[20] * t320;
        const V t531 = t529 - t530;
        // complex block of 2
        const V t532 = t531 - t528;
        const V t533 = t531 + t528;
        // real block of 13
        const V t534 = c[2] * t291;
        const V t535 = c[3] * t290;
        const V t536 = t534 - t535;
        // real block of 13
        const V t537 = t74 - t128;
        // spectrum block of 2
        const V t538 = t537 + t129;
        const V t539 = t537 - t129;
        // real block of 13
        const V t540 = t140 + t148;
        const V t541 = t142 + t150;
        // complex block of 2
        const V t542 = t541 + t540;
        const V t543 = t541 - t540;
        // spectrum block of 3, multiplier 2
        const V t544 = t542 + t538;
        // skew block of 26
        const V t545 = c[62] * t544;
        const V t546 = c[63] * t544;
        // spectrum block of 3, multiplier 2
        const V t547 = c[0] * t542;
        const V t548 = t538 - t547;
        // spectrum block of 3, multiplier 2
        const V t549 = t543 + t539;
        const V t550 = c[0] * t543;
        const V t551 = t539 - t550;
        // real block of 13
        const V t552 = t141 - t149;
        const V t553 = t143 - t151;
        // complex block of 2
        const V t554 = t553 - t552;
        const V t555 = t553 + t552;
        // spectrum block of 3, multiplier 2
        const V t556 = c[1] * t554;
        // spectrum block of 3, multiplier 2
        const V t557 = c[1] * t555;
        // real block of 13
        const V t558 = t134 - t131;
        // complex block of 2
        const V t559 = t162 + t168;
        // mirrored skew block of 6
        const V t560 = c[0] * t559;
        // spectrum block of 3, multiplier 2
        const V t561 = c[26] * t559;
        // complex block of 2
        const V t562 = t165 - t171;
        // mirrored skew block of 6
        const V t563 = c[1] * t562;
        // spectrum block of 3, multiplier 2
        const V t564 = c[27] * t562;
        // mirrored skew block of 6
        const V t565 = t563 + t560;
        // spectrum block of 3, multiplier 2
        const V t566 = t565 + t558;
        const V t567 = c[0] * t565;
        const V t568 = t564 - t561;
        // real block of 13
        const V t569 = t135 + t132;
        // complex block of 2
        const V t570 = t165 + t171;
        // spectrum block of 3, multiplier 2
        const V t571 = t570 + t569;
        const V t572 = c[0] * t570;
        // complex block of 2
        const V t573 = t168 - t162;
        // spectrum block of 3, multiplier 2
        const V t574 = c[1] * t573;
        const V t575 = t569 - t572;
        const V t576 = t575 - t574;
        // skew block of 26
        const V t577 = c[63] * t571;
        const V t578 = c[62] * t571;
        // spectrum block of 3, multiplier 2
        const V t579 = t522 + t497;
        // skew block of 26
        const V t580 = t545 - t577;
        // complex block of 2
        const V t581 = t579 + t580;
        const V t582 = t579 - t580;
        // spectrum block of 53
        const V t583 = c[64] * t581;
        const V t584 = c[65] * t581;
        const V t585 = c[66] * t582;
        const V t586 = c[67] * t582;
        // spectrum block of 3, multiplier 2
        const V t587 = t497 - t523;
        const V t588 = c[1] * t532;
        const V t589 = t587 - t588;
        // spectrum block of 3, multiplier 2
        const V t590 = t509 - t514;
        const V t591 = t590 - t515;
        // spectrum block of 3, multiplier 2
        const V t592 = t548 - t556;
        // skew block of 26
        const V t593 = c[68] * t592;
        const V t594 = c[69] * t592;
        const V t595 = c[69] * t576;
        const V t596 = c[68] * t576;
        // spectrum block of 3, multiplier 2
        const V t597 = t587 + t588;
        // spectrum block of 3, multiplier 2
        const V t598 = t590 + t515;
        // skew block of 26
        const V t599 = t593 + t595;
        // complex block of 2
        const V t600 = t589 + t599;
        const V t601 = t589 - t599;
        // skew block of 26
        const V t602 = t596 - t594;
        // complex block of 2
        const V t603 = t591 + t602;
        const V t604 = t591 - t602;
        // spectrum block of 3, multiplier 2
        const V t605 = t524 + t498;
        const V t606 = t498 - t525;
        const V t607 = c[1] * t533;
        const V t608 = t606 - t607;
        // spectrum block of 3, multiplier 2
        const V t609 = t512 + t536;
        // spectrum block of 3, multiplier 2
        const V t610 = t551 - t557;
        // skew block of 26
        const V t611 = c[70] * t610;
        const V t612 = c[71] * t610;
        const V t613 = c[71] * t566;
        const V t614 = c[70] * t566;
        // spectrum block of 3, multiplier 2
        const V t615 = t606 + t607;
        // skew block of 26
        const V t616 = t611 + t613;
        // complex block of 2
        const V t617 = t608 + t616;
        const V t618 = t608 - t616;
        // skew block of 26
        const V t619 = t614 - t612;
        // complex block of 2
        const V t620 = t609 + t619;
        const V t621 = t609 - t619;
        // spectrum block of 3, multiplier 2
        const V t622 = c[0] * t512;
        const V t623 = t536 - t622;
        const V t624 = t516 - t517;
        const V t625 = t623 + t624;
        const V t626 = t623 - t624;
        // spectrum block of 3, multiplier 2
        const V t627 = t548 + t556;
        // skew block of 26
        const V t628 = c[72] * t627;
        const V t629 = c[73] * t627;
        // spectrum block of 3, multiplier 2
        const V t630 = t575 + t574;
        // skew block of 26
        const V t631 = c[73] * t630;
        const V t632 = c[72] * t630;
        const V t633 = t628 - t631;
        const V t634 = t632 + t629;
        // spectrum block of 3, multiplier 2
        const V t635 = t551 + t557;
        // skew block of 26
        const V t636 = c[74] * t635;
        const V t637 = c[75] * t635;
        // spectrum block of 3, multiplier 2
        const V t638 = t558 - t567;
        const V t639 = t638 + t568;
        const V t640 = t638 - t568;
        // skew block of 26
        const V t641 = c[76] * t549;
        const V t642 = c[77] * t549;
        const V t643 = c[77] * t639;
        const V t644 = t641 + t643;
        const V t645 = c[76] * t639;
        const V t646 = t645 - t642;
        const V t647 = c[75] * t640;
        const V t648 = c[74] * t640;
        const V t649 = t578 + t546;
        // complex block of 2
        const V t650 = t513 + t649;
        const V t651 = t649 - t513;
        // spectrum block of 53
        const V t652 = c[65] * t650;
        const V t653 = c[64] * t650;
        const V t654 = c[67] * t651;
        const V t655 = c[66] * t651;
        // real block of 13
        const V t656 = t74 + t126;
        // spectrum block of 53
        const V t657 = c[61] * t656;
        const V t658 = c[60] * t656;
        // complex block of 2
        const V t659 = t467 + t468;
        // spectrum block of 53
        const V t660 = c[57] * t659;
        const V t661 = c[56] * t659;
        const V t662 = c[49] * t469;
        const V t663 = t459 + t662;
        const V t664 = t452 - t451;
        const V t665 = t486 + t660;
        // real block of 3, multiplier 2
        const V t666 = t664 + t663;
        const V t667 = t666 + t665;
        const V t668 = c[0] * t666;
        // spectrum block of 53
        const V t669 = t487 - t661;
        // real block of 3, multiplier 2
        const V t670 = t664 - t663;
        const V t671 = c[1] * t670;
        // spectrum block of 53
        const V x0 = io.in(0);
        const V t672 = x0 - t328;
        const V t673 = t474 - t477;
        const V t674 = t432 - t431;
        const V t675 = t420 + t419;
        // real block of 3, multiplier 2
        const V t676 = t674 - t675;
        const V t677 = t675 + t674;
        const V t678 = t676 + t673;
        const V t679 = c[0] * t676;
        const V t680 = t673 - t679;
        const V t681 = c[1] * t677;
        // spectrum block of 53
        const V t682 = t478 + t475;
        const V t683 = t460 - t470;
        // skew block of 6
        const V t684 = c[1] * t683;
        const V t685 = c[0] * t683;
        const V t686 = c[0] * t434;
        const V t687 = c[1] * t434;
        const V t688 = c[1] * t454;
        const V t689 = c[0] * t422;
        const V t690 = t689 + t688;
        const V t691 = c[1] * t422;
        const V t692 = c[0] * t454;
        const V t693 = t692 - t691;
        const V t694 = t684 - t686;
        // complex block of 3
        const V t695 = t694 + t690;
        const V t696 = t694 - t690;
        // skew block of 6
        const V t697 = t687 + t685;
        // complex block of 3
        const V t698 = t693 - t697;
        const V t699 = t697 + t693;
        // real block of 3, multiplier 2
        const V t700 = t665 - t668;
        // complex block of 2
        const V t701 = t680 + t700;
        const V t702 = t680 - t700;
        const V t703 = t671 - t681;
        // spectrum block of 13, multiplier 4
        const V t704 = c[28] * t703;
        // complex block of 2
        const V t705 = t681 + t671;
        // spectrum block of 13, multiplier 4
        const V t706 = c[29] * t705;
        const V t707 = c[30] * t702;
        const V t708 = t707 + t706;
        const V t709 = c[31] * t701;
        const V t710 = t704 - t709;
        // spectrum block of 3
        const V t711 = c[32] * t703;
        const V t712 = c[33] * t701;
        // spectrum block of 3
        const V t713 = c[34] * t705;
        const V t714 = c[35] * t702;
        // real block of 2
        const V t715 = t678 + t667;
        // spectrum block of 13, multiplier 4
        const V t716 = c[4] * t715;
        const V t717 = t672 - t716;
        // real block of 2
        const V t718 = t678 - t667;
        // spectrum block of 13, multiplier 4
        const V t719 = c[5] * t718;
        // complex block of 3
        const V t720 = t695 + t682;
        // spectrum block of 13, multiplier 4
        const V t721 = c[6] * t720;
        const V t722 = c[7] * t720;
        // complex block of 3
        const V t723 = t698 + t669;
        // spectrum block of 13, multiplier 4
        const V t724 = c[7] * t723;
        const V t725 = c[6] * t723;
        const V t726 = t721 + t724;
        const V t727 = t722 - t725;
        // complex block of 3
        const V t728 = c[0] * t695;
        const V t729 = t682 - t728;
        const V t730 = c[1] * t699;
        const V t731 = t729 - t730;
        // spectrum block of 13, multiplier 4
        const V t732 = c[8] * t731;
        const V t733 = c[9] * t731;
        // complex block of 3
        const V t734 = t729 + t730;
        const V t735 = c[0] * t698;
        const V t736 = t669 - t735;
        const V t737 = c[1] * t696;
        const V t738 = t736 - t737;
        // spectrum block of 13, multiplier 4
        const V t739 = c[9] * t738;
        const V t740 = c[8] * t738;
        // complex block of 3
        const V t741 = t736 + t737;
        // complex block of 2
        const V t742 = t468 - t467;
        // spectrum block of 53
        const V t743 = c[59] * t742;
        const V t744 = c[58] * t742;
        const V t745 = t448 - t447;
        const V t746 = c[51] * t471;
        const V t747 = t461 + t746;
        const V t748 = t489 + t743;
        // real block of 3, multiplier 2
        const V t749 = t745 + t747;
        const V t750 = t749 + t748;
        const V t751 = c[0] * t749;
        // spectrum block of 53
        const V t752 = t490 - t744;
        // real block of 3, multiplier 2
        const V t753 = t745 - t747;
        const V t754 = c[1] * t753;
        // spectrum block of 53
        const V t755 = t415 - t416;
        const V t756 = t436 - t435;
        // real block of 3, multiplier 2
        const V t757 = t755 + t756;
        const V t758 = t755 - t756;
        // spectrum block of 53
        const V t759 = t480 + t483;
        // real block of 3, multiplier 2
        const V t760 = t757 + t759;
        const V t761 = c[0] * t757;
        const V t762 = t759 - t761;
        const V t763 = c[1] * t758;
        // spectrum block of 53
        const V t764 = t462 - t472;
        // skew block of 6
        const V t765 = c[1] * t764;
        const V t766 = c[0] * t764;
        const V t767 = c[0] * t438;
        const V t768 = c[1] * t438;
        const V t769 = c[1] * t450;
        const V t770 = c[0] * t418;
        const V t771 = t770 + t769;
        const V t772 = c[1] * t418;
        const V t773 = c[0] * t450;
        const V t774 = t772 - t773;
        const V t775 = t765 + t767;
        // complex block of 3
        const V t776 = t775 + t771;
        const V t777 = t771 - t775;
        // skew block of 6
        const V t778 = t766 - t768;
        // complex block of 3
        const V t779 = t778 + t774;
        const V t780 = t778 - t774;
        // spectrum block of 53
        const V t781 = t481 - t484;
        const V t782 = c[99] * t327;
        // real block of 3, multiplier 2
        const V t783 = t748 - t751;
        // complex block of 2
        const V t784 = t762 + t783;
        const V t785 = t762 - t783;
        const V t786 = t763 + t754;
        // spectrum block of 13, multiplier 4
        const V t787 = c[28] * t786;
        // complex block of 2
        const V t788 = t763 - t754;
        // spectrum block of 13, multiplier 4
        const V t789 = c[29] * t788;
        const V t790 = c[30] * t785;
        const V t791 = t790 - t789;
        const V t792 = c[31] * t784;
        const V t793 = t787 - t792;
        // spectrum block of 3
        const V t794 = c[32] * t786;
        const V t795 = c[33] * t784;
        // spectrum block of 3
        const V t796 = c[34] * t788;
        const V t797 = c[35] * t785;
        // real block of 2
        const V t798 = t760 + t750;
        // spectrum block of 13, multiplier 4
        const V t799 = c[4] * t798;
        const V t800 = t782 - t799;
        // real block of 2
        const V t801 = t760 - t750;
        // spectrum block of 13, multiplier 4
        const V t802 = c[5] * t801;
        // complex block of 3
        const V t803 = t776 + t781;
        // spectrum block of 13, multiplier 4
        const V t804 = c[6] * t803;
        const V t805 = c[7] * t803;
        // complex block of 3
        const V t806 = t779 - t752;
        // spectrum block of 13, multiplier 4
        const V t807 = c[7] * t806;
        const V t808 = c[6] * t806;
        const V t809 = t804 - t807;
        const V t810 = t808 + t805;
        // complex block of 3
        const V t811 = c[0] * t776;
        const V t812 = t811 - t781;
        const V t813 = c[1] * t780;
        const V t814 = t812 + t813;
        // spectrum block of 13, multiplier 4
        const V t815 = c[8] * t814;
        const V t816 = c[9] * t814;
        // complex block of 3
        const V t817 = t812 - t813;
        const V t818 = c[0] * t779;
        const V t819 = t752 + t818;
        const V t820 = c[1] * t777;
        const V t821 = t819 + t820;
        // spectrum block of 13, multiplier 4
        const V t822 = c[9] * t821;
        const V t823 = c[8] * t821;
        // complex block of 3
        const V t824 = t820 - t819;
        // complex block of 2
        const V t825 = t605 + t644;
        // spectrum block of 53
        const V t826 = c[78] * t825;
        const V t827 = c[79] * t825;
        // complex block of 2
        const V t828 = t625 + t646;
        // spectrum block of 53
        const V t829 = c[79] * t828;
        const V t830 = c[78] * t828;
        // complex block of 2
        const V t831 = t605 - t644;
        // spectrum block of 53
        const V t832 = c[80] * t831;
        const V t833 = c[81] * t831;
        // complex block of 2
        const V t834 = t625 - t646;
        // spectrum block of 53
        const V t835 = c[81] * t834;
        const V t836 = c[80] * t834;
        const V t837 = t829 - t826;
        const V t838 = t832 - t835;
        // real block of 2
        const V t839 = t837 + t838;
        const V t840 = t837 - t838;
        // spectrum block of 53
        const V t841 = t830 + t827;
        const V t842 = t836 + t833;
        // real block of 2
        const V t843 = t841 + t842;
        const V t844 = t841 - t842;
        // complex block of 2
        const V t845 = t597 + t633;
        // spectrum block of 53
        const V t846 = c[82] * t845;
        const V t847 = c[83] * t845;
        // complex block of 2
        const V t848 = t598 + t634;
        // spectrum block of 53
        const V t849 = c[83] * t848;
        const V t850 = c[82] * t848;
        // complex block of 2
        const V t851 = t597 - t633;
        // spectrum block of 53
        const V t852 = c[84] * t851;
        const V t853 = c[85] * t851;
        // complex block of 2
        const V t854 = t634 - t598;
        // spectrum block of 53
        const V t855 = c[85] * t854;
        const V t856 = c[84] * t854;
        const V t857 = t846 - t849;
        const V t858 = t852 - t855;
        // real block of 2
        const V t859 = t857 - t858;
        // spectrum block of 53
        const V t860 = t850 + t847;
        const V t861 = t856 + t853;
        // real block of 2
        const V t862 = t860 - t861;
        // skew block of 26
        const V t863 = t636 + t647;
        // complex block of 2
        const V t864 = t615 + t863;
        const V t865 = t615 - t863;
        // skew block of 26
        const V t866 = t648 - t637;
        // complex block of 2
        const V t867 = t626 + t866;
        const V t868 = t626 - t866;
        // spectrum block of 53
        const V t869 = c[86] * t867;
        const V t870 = c[87] * t864;
        const V t871 = t870 + t869;
        const V t872 = c[86] * t864;
        const V t873 = c[87] * t867;
        const V t874 = t873 - t872;
        const V t875 = c[88] * t868;
        const V t876 = c[89] * t865;
        const V t877 = t876 + t875;
        const V t878 = c[88] * t865;
        const V t879 = c[89] * t868;
        const V t880 = t879 - t878;
        const V t881 = c[90] * t620;
        const V t882 = c[91] * t617;
        const V t883 = t881 - t882;
        const V t884 = c[92] * t603;
        const V t885 = c[93] * t600;
        const V t886 = t885 + t884;
        const V t887 = t583 + t652;
        const V t888 = t654 - t585;
        // real block of 2
        const V t889 = t887 + t888;
        // spectrum block of 53
        const V t890 = c[94] * t604;
        const V t891 = c[95] * t601;
        const V t892 = t890 - t891;
        const V t893 = c[96] * t621;
        const V t894 = c[97] * t618;
        const V t895 = t893 - t894;
        // real block of 2
        const V t896 = t895 + t883;
        // real block of 2
        const V t897 = t886 + t892;
        // real block of 2
        const V t898 = t896 + t897;
        const V t899 = t896 - t897;
        // real block of 2
        const V t900 = t895 - t883;
        // real block of 2
        const V t901 = t886 - t892;
        // complex block of 3
        const V t902 = t901 - t889;
        // real block of 2
        const V t903 = t888 - t887;
        // spectrum block of 53
        const V t904 = c[90] * t617;
        const V t905 = c[91] * t620;
        const V t906 = t905 + t904;
        const V t907 = c[92] * t600;
        const V t908 = c[93] * t603;
        const V t909 = t908 - t907;
        const V t910 = t653 - t584;
        const V t911 = t655 + t586;
        // real block of 2
        const V t912 = t911 - t910;
        // spectrum block of 53
        const V t913 = c[94] * t601;
        const V t914 = c[95] * t604;
        const V t915 = t914 + t913;
        const V t916 = c[96] * t618;
        const V t917 = c[97] * t621;
        const V t918 = t917 + t916;
        // real block of 2
        const V t919 = t918 - t906;
        // real block of 2
        const V t920 = t909 + t915;
        // real block of 2
        const V t921 = t919 + t920;
        const V t922 = t919 - t920;
        // real block of 2
        const V t923 = t918 + t906;
        // real block of 2
        const V t924 = t909 - t915;
        // complex block of 3
        const V t925 = t924 + t912;
        // real block of 2
        const V t926 = t910 + t911;
        // real block of 2
        const V t927 = t880 + t874;
        // real block of 2
        const V t928 = t860 + t861;
        // real block of 2
        const V t929 = t927 + t928;
        const V t930 = t927 - t928;
        // real block of 2
        const V t931 = t843 - t926;
        // real block of 3
        const V t932 = t921 + t931;
        const V t933 = t921 - t931;
        // real block of 2
        const V t934 = t843 + t926;
        // real block of 3
        const V t935 = t922 + t934;
        const V t936 = t922 - t934;
        // real block of 3
        const V t937 = t932 + t929;
        const V t938 = c[0] * t932;
        const V t939 = t929 - t938;
        const V t940 = c[1] * t933;
        // complex block of 13, multiplier 4
        const V t941 = c[28] * t940;
        // real block of 3
        const V t942 = t935 + t930;
        const V t943 = c[0] * t935;
        const V t944 = t930 - t943;
        const V t945 = c[1] * t936;
        // complex block of 13, multiplier 4
        const V t946 = c[29] * t945;
        // real block of 2
        const V t947 = t880 - t874;
        // complex block of 3
        const V t948 = t923 + t844;
        const V t949 = c[0] * t948;
        const V t950 = t924 - t912;
        const V t951 = c[1] * t950;
        const V t952 = t948 + t947;
        const V t953 = t947 - t949;
        const V t954 = t953 + t951;
        const V t955 = t953 - t951;
        const V t956 = t923 - t844;
        const V t957 = c[1] * t956;
        const V t958 = c[0] * t925;
        const V t959 = t862 - t958;
        const V t960 = t959 - t957;
        // complex block of 13, multiplier 4
        const V t961 = c[9] * t960;
        const V t962 = c[8] * t960;
        // complex block of 3
        const V t963 = t959 + t957;
        // complex block of 13, multiplier 4
        const V t964 = c[7] * t963;
        const V t965 = c[6] * t963;
        // complex block of 3
        const V t966 = t925 + t862;
        // complex block of 13, multiplier 4
        const V t967 = c[3] * t966;
        const V t968 = c[2] * t966;
        // real block of 2
        const V t969 = t871 - t877;
        // real block of 2
        const V t970 = t857 + t858;
        // real block of 2
        const V t971 = t969 + t970;
        const V t972 = t969 - t970;
        // real block of 2
        const V t973 = t839 + t903;
        // real block of 3
        const V t974 = t898 + t973;
        const V t975 = t898 - t973;
        // real block of 2
        const V t976 = t839 - t903;
        // real block of 3
        const V t977 = t899 + t976;
        const V t978 = t899 - t976;
        // real block of 3
        const V t979 = t974 + t971;
        const V t980 = c[0] * t974;
        const V t981 = t971 - t980;
        const V t982 = c[1] * t975;
        // complex block of 13, multiplier 4
        const V t983 = c[28] * t982;
        // real block of 3
        const V t984 = t977 + t972;
        const V t985 = c[0] * t977;
        const V t986 = t972 - t985;
        const V t987 = c[1] * t978;
        // complex block of 13, multiplier 4
        const V t988 = c[29] * t987;
        // real block of 2
        const V t989 = t877 + t871;
        // complex block of 3
        const V t990 = t900 + t840;
        const V t991 = c[0] * t990;
        const V t992 = t901 + t889;
        const V t993 = c[1] * t992;
        const V t994 = t990 - t989;
        const V t995 = t989 + t991;
        const V t996 = t993 - t995;
        const V t997 = t995 + t993;
        const V t998 = t900 - t840;
        const V t999 = c[1] * t998;
        const V t1000 = c[0] * t902;
        const V t1001 = t859 - t1000;
        const V t1002 = t1001 - t999;
        // complex block of 13, multiplier 4
        const V t1003 = c[9] * t1002;
        const V t1004 = c[8] * t1002;
        // complex block of 3
        const V t1005 = t1001 + t999;
        // complex block of 13, multiplier 4
        const V t1006 = c[7] * t1005;
        const V t1007 = c[6] * t1005;
        // complex block of 3
        const V t1008 = t902 + t859;
        // complex block of 13, multiplier 4
        const V t1009 = c[3] * t1008;
        const V t1010 = c[2] * t1008;
        // spectrum block of 53
        const V t1011 = t492 + t657;
        const V t1012 = t493 - t658;
        // spectrum block of 13, multiplier 4
        const V t1013 = c[3] * t741;
        const V t1014 = c[2] * t734;
        const V t1015 = t1014 + t1013;
        const V t1016 = t732 + t739;
        // complex block of 3
        const V t1017 = t1016 + t726;
        const V t1018 = t726 - t1016;
        const V t1019 = t1015 - t1017;
        const V t1020 = c[0] * t1017;
        const V t1021 = t1020 + t1015;
        const V t1022 = c[1] * t1018;
        // spectrum block of 13, multiplier 4
        const V t1023 = c[3] * t734;
        const V t1024 = c[2] * t741;
        const V t1025 = t1023 - t1024;
        const V t1026 = t733 - t740;
        // complex block of 3
        const V t1027 = t1026 + t727;
        const V t1028 = t727 - t1026;
        const V t1029 = t1025 - t1027;
        const V t1030 = c[0] * t1027;
        const V t1031 = t1030 + t1025;
        const V t1032 = c[1] * t1028;
        // spectrum block of 3
        const V t1033 = t710 + t717;
        // spectrum block of 3
        const V t1034 = t708 + t719;
        // spectrum block of 2
        const V t1035 = t1033 + t1034;
        const V t1036 = t1033 - t1034;
        // spectrum block of 3
        const V t1037 = c[0] * t710;
        const V t1038 = t717 - t1037;
        const V t1039 = t711 + t712;
        // spectrum block of 3
        const V t1040 = c[0] * t708;
        const V t1041 = t719 - t1040;
        const V t1042 = t713 - t714;
        // spectrum block of 3
        const V t1043 = t1038 + t1039;
        // spectrum block of 3
        const V t1044 = t1041 + t1042;
        // spectrum block of 2
        const V t1045 = t1043 + t1044;
        const V t1046 = t1043 - t1044;
        // spectrum block of 3
        const V t1047 = t1038 - t1039;
        // spectrum block of 3
        const V t1048 = t1041 - t1042;
        // spectrum block of 2
        const V t1049 = t1047 + t1048;
        const V t1050 = t1047 - t1048;
        // complex block of 13, multiplier 4
        const V t1051 = c[4] * t937;
        const V t1052 = t1012 - t1051;
        const V t1053 = c[31] * t939;
        const V t1054 = t1053 + t941;
        // spectrum block of 3
        const V t1055 = t1052 - t1054;
        const V t1056 = c[0] * t1054;
        const V t1057 = t1056 + t1052;
        // complex block of 13, multiplier 4
        const V t1058 = c[4] * t979;
        const V t1059 = t1011 - t1058;
        const V t1060 = c[31] * t981;
        const V t1061 = t1060 + t983;
        // spectrum block of 3
        const V t1062 = t1059 - t1061;
        const V t1063 = c[0] * t1061;
        const V t1064 = t1063 + t1059;
        // complex block of 13, multiplier 4
        const V t1065 = c[6] * t997;
        const V t1066 = t1065 + t1006;
        const V t1067 = c[8] * t996;
        const V t1068 = t1067 - t1003;
        // complex block of 3
        const V t1069 = t1068 - t1066;
        const V t1070 = c[0] * t1069;
        const V t1071 = t1068 + t1066;
        const V t1072 = c[1] * t1071;
        // complex block of 13, multiplier 4
        const V t1073 = c[7] * t997;
        const V t1074 = t1073 - t1007;
        const V t1075 = c[9] * t996;
        const V t1076 = t1004 + t1075;
        // complex block of 3
        const V t1077 = t1076 - t1074;
        const V t1078 = c[0] * t1077;
        const V t1079 = t1076 + t1074;
        const V t1080 = c[1] * t1079;
        // complex block of 13, multiplier 4
        const V t1081 = c[6] * t955;
        const V t1082 = t964 - t1081;
        const V t1083 = c[8] * t954;
        const V t1084 = t961 - t1083;
        // complex block of 3
        const V t1085 = t1084 + t1082;
        const V t1086 = c[0] * t1085;
        const V t1087 = t1084 - t1082;
        const V t1088 = c[1] * t1087;
        // complex block of 13, multiplier 4
        const V t1089 = c[7] * t955;
        const V t1090 = t965 + t1089;
        const V t1091 = c[9] * t954;
        const V t1092 = t962 + t1091;
        // complex block of 3
        const V t1093 = t1092 + t1090;
        const V t1094 = c[0] * t1093;
        const V t1095 = t1090 - t1092;
        const V t1096 = c[1] * t1095;
        // complex block of 13, multiplier 4
        const V t1097 = c[30] * t944;
        const V t1098 = t1097 + t946;
        const V t1099 = c[5] * t942;
        // spectrum block of 3
        const V t1100 = t1098 + t1099;
        const V t1101 = c[0] * t1098;
        const V t1102 = t1099 - t1101;
        // complex block of 13, multiplier 4
        const V t1103 = c[30] * t986;
        const V t1104 = t1103 + t988;
        const V t1105 = c[5] * t984;
        // spectrum block of 3
        const V t1106 = t1104 + t1105;
        const V t1107 = c[0] * t1104;
        const V t1108 = t1105 - t1107;
        // complex block of 13, multiplier 4
        const V t1109 = c[2] * t994;
        const V t1110 = t1009 - t1109;
        const V t1111 = c[3] * t994;
        const V t1112 = t1010 + t1111;
        const V t1113 = c[2] * t952;
        const V t1114 = t1113 - t967;
        const V t1115 = c[3] * t952;
        const V t1116 = t968 + t1115;
        // spectrum block of 3
        const V t1117 = c[32] * t940;
        const V t1118 = c[33] * t939;
        const V t1119 = t1117 - t1118;
        // spectrum block of 3
        const V t1120 = c[34] * t945;
        const V t1121 = c[35] * t944;
        const V t1122 = t1120 - t1121;
        // spectrum block of 3
        const V t1123 = c[32] * t982;
        const V t1124 = c[33] * t981;
        const V t1125 = t1123 - t1124;
        // spectrum block of 3
        const V t1126 = c[34] * t987;
        const V t1127 = c[35] * t986;
        const V t1128 = t1126 - t1127;
        // spectrum block of 13, multiplier 4
        const V t1129 = c[3] * t824;
        const V t1130 = c[2] * t817;
        const V t1131 = t1130 + t1129;
        const V t1132 = t822 - t815;
        // complex block of 3
        const V t1133 = t1132 + t809;
        const V t1134 = t1132 - t809;
        const V t1135 = t1133 + t1131;
        const V t1136 = c[0] * t1133;
        const V t1137 = t1131 - t1136;
        const V t1138 = c[1] * t1134;
        // spectrum block of 13, multiplier 4
        const V t1139 = c[3] * t817;
        const V t1140 = c[2] * t824;
        const V t1141 = t1139 - t1140;
        const V t1142 = t823 + t816;
        // complex block of 3
        const V t1143 = t810 - t1142;
        const V t1144 = t1142 + t810;
        const V t1145 = t1143 + t1141;
        const V t1146 = c[0] * t1143;
        const V t1147 = t1141 - t1146;
        const V t1148 = c[1] * t1144;
        // spectrum block of 3
        const V t1149 = t793 + t800;
        // spectrum block of 3
        const V t1150 = t791 + t802;
        // spectrum block of 2
        const V t1151 = t1149 + t1150;
        const V t1152 = t1149 - t1150;
        // spectrum block of 3
        const V t1153 = c[0] * t793;
        const V t1154 = t800 - t1153;
        const V t1155 = t794 + t795;
        // spectrum block of 3
        const V t1156 = c[0] * t791;
        const V t1157 = t802 - t1156;
        const V t1158 = t796 + t797;
        // spectrum block of 3
        const V t1159 = t1154 + t1155;
        // spectrum block of 3
        const V t1160 = t1157 - t1158;
        // spectrum block of 2
        const V t1161 = t1159 + t1160;
        const V t1162 = t1159 - t1160;
        // spectrum block of 3
        const V t1163 = t1154 - t1155;
        // spectrum block of 3
        const V t1164 = t1157 + t1158;
        // spectrum block of 2
        const V t1165 = t1163 + t1164;
        const V t1166 = t1163 - t1164;
        // complex block of 3
        const V t1167 = t1031 + t1022;
        // spectrum block of 2
        const V t1168 = t1046 + t1167;
        const V t1169 = t1046 - t1167;
        // complex block of 3
        const V t1170 = t1021 - t1032;
        // spectrum block of 2
        const V t1171 = t1045 + t1170;
        const V t1172 = t1045 - t1170;
        // complex block of 3
        const V t1173 = t1031 - t1022;
        // spectrum block of 2
        const V t1174 = t1050 + t1173;
        const V t1175 = t1050 - t1173;
        // complex block of 3
        const V t1176 = t1021 + t1032;
        // spectrum block of 2
        const V t1177 = t1049 + t1176;
        const V t1178 = t1049 - t1176;
        // spectrum block of 3
        const V t1179 = t1057 - t1119;
        // spectrum block of 3
        const V t1180 = t1102 + t1122;
        // spectrum block of 2
        const V t1181 = t1179 + t1180;
        const V t1182 = t1179 - t1180;
        // spectrum block of 3
        const V t1183 = t1057 + t1119;
        // spectrum block of 3
        const V t1184 = t1102 - t1122;
        // spectrum block of 2
        const V t1185 = t1183 + t1184;
        const V t1186 = t1183 - t1184;
        // complex block of 3
        const V t1187 = t1112 + t1078;
        const V t1188 = t1072 - t1187;
        const V t1189 = t1187 + t1072;
        const V t1190 = t1110 - t1070;
        const V t1191 = t1190 - t1080;
        const V t1192 = t1190 + t1080;
        // spectrum block of 3
        const V t1193 = t1064 - t1125;
        // spectrum block of 3
        const V t1194 = t1108 + t1128;
        // spectrum block of 2
        const V t1195 = t1193 + t1194;
        const V t1196 = t1193 - t1194;
        // spectrum block of 3
        const V t1197 = t1064 + t1125;
        // spectrum block of 3
        const V t1198 = t1108 - t1128;
        // spectrum block of 2
        const V t1199 = t1197 + t1198;
        const V t1200 = t1197 - t1198;
        // complex block of 3
        const V t1201 = t1094 + t1116;
        const V t1202 = t1201 + t1088;
        const V t1203 = t1201 - t1088;
        const V t1204 = t1114 - t1086;
        const V t1205 = t1204 - t1096;
        const V t1206 = t1204 + t1096;
        // complex block of 3
        const V t1207 = t1147 + t1138;
        // spectrum block of 2
        const V t1208 = t1162 + t1207;
        const V t1209 = t1162 - t1207;
        // complex block of 3
        const V t1210 = t1137 + t1148;
        // spectrum block of 2
        const V t1211 = t1161 + t1210;
        const V t1212 = t1161 - t1210;
        // complex block of 3
        const V t1213 = t1147 - t1138;
        // spectrum block of 2
        const V t1214 = t1166 + t1213;
        const V t1215 = t1166 - t1213;
        // complex block of 3
        const V t1216 = t1137 - t1148;
        // spectrum block of 2
        const V t1217 = t1165 + t1216;
        const V t1218 = t1165 - t1216;
        // spectrum block of 2
        const V t1219 = t1181 + t1191;
        // spectrum block of 2
        const V t1220 = t1171 - t1211;
        // spectrum block of 2
        const V t1221 = t1220 - t1219;
        io.out(45, t1221);
        const V t1222 = t1220 + t1219;
        io.out(8, t1222);
        // spectrum block of 2
        const V t1223 = t1181 - t1191;
        // spectrum block of 2
        const V t1224 = t1172 - t1212;
        // spectrum block of 2
        const V t1225 = t1224 - t1223;
        io.out(20, t1225);
        const V t1226 = t1224 + t1223;
        io.out(33, t1226);
        // spectrum block of 2
        const V t1227 = t1182 + t1188;
        // spectrum block of 2
        const V t1228 = t1168 - t1208;
        // spectrum block of 2
        const V t1229 = t1228 - t1227;
        io.out(39, t1229);
        const V t1230 = t1228 + t1227;
        io.out(14, t1230);
        // spectrum block of 2
        const V t1231 = t1182 - t1188;
        // spectrum block of 2
        const V t1232 = t1169 - t1209;
        // spectrum block of 2
        const V t1233 = t1232 - t1231;
        io.out(19, t1233);
        const V t1234 = t1232 + t1231;
        io.out(34, t1234);
        // spectrum block of 2
        const V t1235 = t1185 + t1192;
        // spectrum block of 2
        const V t1236 = t1177 - t1217;
        // spectrum block of 2
        const V t1237 = t1236 - t1235;
        io.out(2, t1237);
        const V t1238 = t1236 + t1235;
        io.out(51, t1238);
        // spectrum block of 2
        const V t1239 = t1185 - t1192;
        // spectrum block of 2
        const V t1240 = t1178 - t1218;
        // spectrum block of 2
        const V t1241 = t1240 - t1239;
        io.out(26, t1241);
        const V t1242 = t1240 + t1239;
        io.out(27, t1242);
        // spectrum block of 2
        const V t1243 = t1186 - t1189;
        // spectrum block of 2
        const V t1244 = t1174 - t1214;
        // spectrum block of 2
        const V t1245 = t1244 - t1243;
        io.out(32, t1245);
        const V t1246 = t1244 + t1243;
        io.out(21, t1246);
        // spectrum block of 2
        const V t1247 = t1186 + t1189;
        // spectrum block of 2
        const V t1248 = t1175 - t1215;
        // spectrum block of 2
        const V t1249 = t1248 - t1247;
        io.out(48, t1249);
        const V t1250 = t1248 + t1247;
        io.out(5, t1250);
        // spectrum block of 2
        const V t1251 = t1195 + t1205;
        // spectrum block of 2
        const V t1252 = t1171 + t1211;
        // spectrum block of 2
        const V t1253 = t1252 + t1251;
        io.out(25, t1253);
        const V t1254 = t1252 - t1251;
        io.out(28, t1254);
        // spectrum block of 2
        const V t1255 = t1195 - t1205;
        // spectrum block of 2
        const V t1256 = t1172 + t1212;
        // spectrum block of 2
        const V t1257 = t1256 + t1255;
        io.out(17, t1257);
        const V t1258 = t1256 - t1255;
        io.out(36, t1258);
        // spectrum block of 2
        const V t1259 = t1196 + t1202;
        // spectrum block of 2
        const V t1260 = t1168 + t1208;
        // spectrum block of 2
        const V t1261 = t1260 + t1259;
        io.out(4, t1261);
        const V t1262 = t1260 - t1259;
        io.out(49, t1262);
        // spectrum block of 2
        const V t1263 = t1196 - t1202;
        // spectrum block of 2
        const V t1264 = t1169 + t1209;
        // spectrum block of 2
        const V t1265 = t1264 + t1263;
        io.out(40, t1265);
        const V t1266 = t1264 - t1263;
        io.out(13, t1266);
        // spectrum block of 2
        const V t1267 = t1199 + t1206;
        // spectrum block of 2
        const V t1268 = t1177 + t1217;
        // spectrum block of 2
        const V t1269 = t1268 + t1267;
        io.out(7, t1269);
        const V t1270 = t1268 - t1267;
        io.out(46, t1270);
        // spectrum block of 2
        const V t1271 = t1199 - t1206;
        // spectrum block of 2
        const V t1272 = t1178 + t1218;
        // spectrum block of 2
        const V t1273 = t1272 + t1271;
        io.out(38, t1273);
        const V t1274 = t1272 - t1271;
        io.out(15, t1274);
        // spectrum block of 2
        const V t1275 = t1200 + t1203;
        // spectrum block of 2
        const V t1276 = t1174 + t1214;
        // spectrum block of 2
        const V t1277 = t1276 + t1275;
        io.out(6, t1277);
        const V t1278 = t1276 - t1275;
        io.out(47, t1278);
        // spectrum block of 2
        const V t1279 = t1200 - t1203;
        // spectrum block of 2
        const V t1280 = t1175 + t1215;
        // spectrum block of 2
        const V t1281 = t1280 + t1279;
        io.out(9, t1281);
        const V t1282 = t1280 - t1279;
        io.out(44, t1282);
        // spectrum block of 2
        const V t1283 = t1035 + t1019;
        // spectrum block of 2
        const V t1284 = t1151 + t1135;
        // spectrum block of 2
        const V t1285 = t1283 + t1284;
        const V t1286 = t1283 - t1284;
        // spectrum block of 2
        const V t1287 = t1035 - t1019;
        // spectrum block of 2
        const V t1288 = t1151 - t1135;
        // spectrum block of 2
        const V t1289 = t1287 + t1288;
        const V t1290 = t1287 - t1288;
        // complex block of 3
        const V t1291 = t1069 + t1110;
        // spectrum block of 2
        const V t1292 = t1055 + t1100;
        // spectrum block of 2
        const V t1293 = t1292 + t1291;
        const V t1294 = t1292 - t1291;
        // complex block of 3
        const V t1295 = t1085 + t1114;
        // spectrum block of 2
        const V t1296 = t1062 + t1106;
        // spectrum block of 2
        const V t1297 = t1296 + t1295;
        const V t1298 = t1296 - t1295;
        // spectrum block of 2
        const V t1299 = t1285 + t1297;
        io.out(43, t1299);
        const V t1300 = t1285 - t1297;
        io.out(10, t1300);
        // spectrum block of 2
        const V t1301 = t1286 - t1293;
        io.out(35, t1301);
        const V t1302 = t1286 + t1293;
        io.out(18, t1302);
        // spectrum block of 2
        const V t1303 = t1289 + t1298;
        io.out(37, t1303);
        const V t1304 = t1289 - t1298;
        io.out(16, t1304);
        // spectrum block of 2
        const V t1305 = t1290 - t1294;
        io.out(3, t1305);
        const V t1306 = t1290 + t1294;
        io.out(50, t1306);
        // spectrum block of 2
        const V t1307 = t1036 + t1029;
        // spectrum block of 2
        const V t1308 = t1152 + t1145;
        // spectrum block of 2
        const V t1309 = t1307 + t1308;
        const V t1310 = t1307 - t1308;
        // spectrum block of 2
        const V t1311 = t1036 - t1029;
        // spectrum block of 2
        const V t1312 = t1152 - t1145;
        // spectrum block of 2
        const V t1313 = t1311 + t1312;
        const V t1314 = t1311 - t1312;
        // complex block of 3
        const V t1315 = t1077 - t1112;
        // spectrum block of 2
        const V t1316 = t1055 - t1100;
        // spectrum block of 2
        const V t1317 = t1316 + t1315;
        const V t1318 = t1316 - t1315;
        // complex block of 3
        const V t1319 = t1116 - t1093;
        // spectrum block of 2
        const V t1320 = t1062 - t1106;
        // spectrum block of 2
        const V t1321 = t1320 + t1319;
        const V t1322 = t1320 - t1319;
        // spectrum block of 2
        const V t1323 = t1309 + t1321;
        io.out(11, t1323);
        const V t1324 = t1309 - t1321;
        io.out(42, t1324);
        // spectrum block of 2
        const V t1325 = t1310 - t1317;
        io.out(41, t1325);
        const V t1326 = t1310 + t1317;
        io.out(12, t1326);
        // spectrum block of 2
        const V t1327 = t1313 + t1322;
        io.out(29, t1327);
        const V t1328 = t1313 - t1322;
        io.out(24, t1328);
        // spectrum block of 2
        const V t1329 = t1314 - t1318;
        io.out(31, t1329);
        const V t1330 = t1314 + t1318;
        io.out(22, t1330);
        // spectrum block of 13, multiplier 4
        const V t1331 = t672 + t715;
        // spectrum block of 13, multiplier 4
        const V t1332 = t782 + t798;
        // spectrum block of 2
        const V t1333 = t1331 + t1332;
        const V t1334 = t1331 - t1332;
        // complex block of 13, multiplier 4
        const V t1335 = t1012 + t937;
        const V t1336 = t1011 + t979;
        // spectrum block of 2
        const V t1337 = t1333 + t1336;
        io.out(52, t1337);
        const V t1338 = t1333 - t1336;
        io.out(1, t1338);
        // spectrum block of 2
        const V t1339 = t1334 - t1335;
        io.out(30, t1339);
        const V t1340 = t1334 + t1335;
        io.out(23, t1340);
        // spectrum block of 53
        const V t1341 = x0 + t326;
        io.out(0, t1341);
    }
};

}  // namespace zulg
