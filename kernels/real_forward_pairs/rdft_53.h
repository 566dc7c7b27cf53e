// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 53.
// Forward DFT of 53 real points, Rader 4, 13; two lanes to a register.
// 244 sums, 181 differences, 229 products of registers, which do the 1353 steps of the graph, those with
// `scale` included; 172 shuffles, 24 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<53> {
    static constexpr int steps = 1353;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.1741386011521359,  // c[2]: Q[3] of 13
        0.5751407294740031,  // c[3]: -P[3] of 13
        0.08333333333333333,  // c[4]: 1/12
        0.015496188988565054,  // c[5]: -P[1] of 13
        0.6007253775544544,  // c[6]: -Q[1] of 13
        0.3203288761978803,  // c[7]: -P[5] of 13
        0.5084294662830964,  // c[8]: -Q[5] of 13
        0.3004626062886658,  // c[9]: beta of 13
        0.2869425954512852,  // c[10]: -P[1] of 13
        0.5279915321544383,  // c[11]: -Q[1] of 13
        0.280148395734785,  // c[12]: Q[5] of 13
        0.5316276774946329,  // c[13]: -P[5] of 13
        0.007705858903092426,  // c[14]: P[2] of 13
        0.6008758031820526,  // c[15]: -Q[2] of 13
        0.5794400189009605,  // c[16]: -P[4] of 13
        0.15924941320823024,  // c[17]: -Q[4] of 13
        0.5242266395265821,  // c[18]: P[2] of 13
        0.29376443202296976,  // c[19]: -Q[2] of 13
        0.42763404682657274,  // c[20]: P[4] of 13
        0.42218506973345193,  // c[21]: -Q[4] of 13
        0.37034194807495624,  // c[22]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[23]: sin 2 pi 1/3 times -Q[4] of 13
        0.45399358717056765,  // c[24]: sin 2 pi 1/3 times P[2] of 13
        0.25440746086019866,  // c[25]: sin 2 pi 1/3 times -Q[2] of 13
        0.5018097763375671,  // c[26]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[27]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[28]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[29]: sin 2 pi 1/3 times -Q[2] of 13
        0.75,  // c[30]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[31]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.2535110589592131,  // c[32]: P[1] of 53
        0.11888864474491956,  // c[33]: -Q[1] of 53
        0.2471500091242084,  // c[34]: P[2] of 53
        0.13160258300584013,  // c[35]: -Q[2] of 53
        0.01920483471835668,  // c[36]: P[3] of 53
        0.27934484277921784,  // c[37]: -Q[3] of 53
        0.049641770378907886,  // c[38]: P[4] of 53
        0.2755686148630738,  // c[39]: Q[4] of 53
        0.08550180730497182,  // c[40]: P[5] of 53
        0.26663047052332334,  // c[41]: Q[5] of 53
        0.18509085703434766,  // c[42]: P[6] of 53
        0.21010412063116707,  // c[43]: Q[6] of 53
        0.2786708556034366,  // c[44]: Q[7] of 53
        0.02729324277461261,  // c[45]: P[7] of 53
        0.27887234952845297,  // c[46]: Q[8] of 53
        0.02515113381908794,  // c[47]: P[8] of 53
        0.27926923264549397,  // c[48]: P[9] of 53
        0.02027467783966699,  // c[49]: Q[9] of 53
        0.2421434442697633,  // c[50]: Q[10] of 53
        0.14060198882334973,  // c[51]: -P[10] of 53
        0.23326162380743898,  // c[52]: P[11] of 53
        0.15489151598012768,  // c[53]: -Q[11] of 53
        0.20532068893261132,  // c[54]: P[12] of 53
        0.1903832491584887,  // c[55]: Q[12] of 53
        0.27729778231647617,  // c[56]: -P[13] of 53
        0.038836925551200704,  // c[57]: Q[13] of 53
        0.09172503255893466,  // c[58]: P[14] of 53
        0.2645541253996386,  // c[59]: -Q[14] of 53
        0.10309300873453617,  // c[60]: -P[15] of 53
        0.2603347814141748,  // c[61]: -Q[15] of 53
        0.27552946855879373,  // c[62]: -P[16] of 53
        0.04985858822323415,  // c[63]: Q[16] of 53
        0.062487064695808406,  // c[64]: P[17] of 53
        0.27294272954157833,  // c[65]: -Q[17] of 53
        0.2519381469601781,  // c[66]: P[18] of 53
        0.12218648440059575,  // c[67]: Q[18] of 53
        0.26661085340441376,  // c[68]: Q[19] of 53
        0.0855629575860694,  // c[69]: P[19] of 53
        0.279948840618166,  // c[70]: Q[20] of 53
        0.005568976607062611,  // c[71]: P[20] of 53
        0.2608612063201607,  // c[72]: -P[21] of 53
        0.10175361370042776,  // c[73]: -Q[21] of 53
        0.21551686731931244,  // c[74]: Q[22] of 53
        0.17875918651855408,  // c[75]: P[22] of 53
        0.2795810907749542,  // c[76]: Q[23] of 53
        0.015387675100292094,  // c[77]: P[23] of 53
        0.04799540743714245,  // c[78]: P[24] of 53
        0.2758601234844355,  // c[79]: -Q[24] of 53
        0.26811627900458906,  // c[80]: -P[25] of 53
        0.08072191645791539,  // c[81]: -Q[25] of 53
        0.12053668025532305,  // c[82]: -sin 2 pi 51/52
        0.992708874098054,  // c[83]: cos 2 pi 51/52
        0.9350162426854148,  // c[84]: cos 2 pi 49/52
        0.3546048870425356,  // c[85]: -sin 2 pi 49/52
        0.5680647467311558,  // c[86]: -sin 2 pi 47/52
        0.8229838658936564,  // c[87]: cos 2 pi 47/52
        0.7485107481711011,  // c[88]: -sin 2 pi 45/52
        0.6631226582407952,  // c[89]: cos 2 pi 45/52
        0.8854560256532099,  // c[90]: -sin 2 pi 43/52
        0.46472317204376856,  // c[91]: cos 2 pi 43/52
        0.23931566428755777,  // c[92]: cos 2 pi 41/52
        0.970941817426052,  // c[93]: -sin 2 pi 41/52
        0.019230769230769232,  // c[94]: 1/52
        0.14000211325539458,  // c[95]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x1_16 = io.in(1, 16);
        const P x52_37 = io.in(52, 37);
        // real block of 2
        const P t0 = x1_16 + x52_37;
        const P t1 = x1_16 - x52_37;
        const P x30_3 = io.in(30, 3);
        const P x23_50 = io.in(23, 50);
        // real block of 2
        const P t2 = x30_3 + x23_50;
        const P t3 = x30_3 - x23_50;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x44_15 = io.in(44, 15);
        const P x9_38 = io.in(9, 38);
        // real block of 2
        const P t6 = x44_15 + x9_38;
        const P t7 = x44_15 - x9_38;
        const P x48_26 = io.in(48, 26);
        const P x5_27 = io.in(5, 27);
        // real block of 2
        const P t8 = x48_26 + x5_27;
        const P t9 = x48_26 - x5_27;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x25_24 = io.in(25, 24);
        const P x28_29 = io.in(28, 29);
        // real block of 2
        const P t12 = x25_24 + x28_29;
        const P t13 = shuffled<0, 3>(x28_29, x25_24);
        const P t14 = shuffled<0, 3>(x25_24, x28_29);
        const P t15 = t13 - t14;
        const P x45_31 = io.in(45, 31);
        const P x8_22 = io.in(8, 22);
        // real block of 2
        const P t16 = x45_31 + x8_22;
        const P t17 = x45_31 - x8_22;
        // real block of 2
        const P t18 = t12 + t16;
        const P t19 = t12 - t16;
        const P x13_49 = io.in(13, 49);
        const P x40_4 = io.in(40, 4);
        // real block of 2
        const P t20 = x13_49 + x40_4;
        const P t21 = x13_49 - x40_4;
        const P x19_39 = io.in(19, 39);
        const P x34_14 = io.in(34, 14);
        // real block of 2
        const P t22 = x19_39 + x34_14;
        const P t23 = x19_39 - x34_14;
        // real block of 2
        const P t24 = t20 + t22;
        const P t25 = t20 - t22;
        const P x42_36 = io.in(42, 36);
        const P x11_17 = io.in(11, 17);
        // real block of 2
        const P t26 = x42_36 + x11_17;
        const P t27 = x42_36 - x11_17;
        const P x41_20 = io.in(41, 20);
        const P x12_33 = io.in(12, 33);
        // real block of 2
        const P t28 = x41_20 + x12_33;
        const P t29 = x41_20 - x12_33;
        // real block of 2
        const P t30 = t26 + t28;
        const P t31 = t26 - t28;
        const P x46_47 = io.in(46, 47);
        const P x7_6 = io.in(7, 6);
        // real block of 2
        const P t32 = x46_47 + x7_6;
        const P t33 = x46_47 - x7_6;
        const P x2_32 = io.in(2, 32);
        const P x51_21 = io.in(51, 21);
        // real block of 2
        const P t34 = x2_32 + x51_21;
        const P t35 = x2_32 - x51_21;
        // real block of 2
        const P t36 = t32 + t34;
        const P t37 = t32 - t34;
        const P x10_35 = io.in(10, 35);
        const P x43_18 = io.in(43, 18);
        // real block of 2
        const P t38 = x10_35 + x43_18;
        const P t39 = x10_35 - x43_18;
        const V t40 = part<0>(t38);
        const V t41 = part<1>(t38);
        // real block of 2
        const V t42 = t40 + t41;
        const V t43 = t40 - t41;
        const P t44 = shuffled<1, 3>(t1, t3);
        // real block of 2
        const P t45 = t44 + t39;
        const P t46 = shuffled<0, 3>(t44, t39);
        const P t47 = shuffled<0, 3>(t39, t44);
        const P t48 = t46 - t47;
        const P t49 = shuffled<0, 2>(t27, t29);
        const P t50 = shuffled<1, 3>(t15, t17);
        // real block of 2
        const P t51 = t49 + t50;
        const P t52 = shuffled<0, 3>(t49, t50);
        const P t53 = shuffled<0, 3>(t50, t49);
        const P t54 = t52 - t53;
        // real block of 2
        const P t55 = t45 + t51;
        const P t56 = shuffled<0, 3>(t45, t51);
        const P t57 = shuffled<0, 3>(t51, t45);
        const P t58 = t56 - t57;
        const P t59 = shuffled<1, 3>(t7, t9);
        const P t60 = shuffled<0, 2>(t33, t35);
        // real block of 2
        const P t61 = t59 + t60;
        const P t62 = shuffled<0, 3>(t59, t60);
        const P t63 = shuffled<0, 3>(t60, t59);
        const P t64 = t62 - t63;
        const P t65 = shuffled<1, 3>(t33, t35);
        const P t66 = shuffled<0, 2>(t7, t9);
        // real block of 2
        const P t67 = t65 + t66;
        const P t68 = shuffled<0, 3>(t65, t66);
        const P t69 = shuffled<0, 3>(t66, t65);
        const P t70 = t68 - t69;
        // real block of 2
        const P t71 = t61 + t67;
        const P t72 = shuffled<0, 3>(t61, t67);
        const P t73 = shuffled<0, 3>(t67, t61);
        const P t74 = t72 - t73;
        const P t75 = shuffled<1, 3>(t27, t29);
        const P t76 = shuffled<0, 2>(t15, t17);
        // real block of 2
        const P t77 = t75 + t76;
        const P t78 = shuffled<0, 3>(t75, t76);
        const P t79 = shuffled<0, 3>(t76, t75);
        const P t80 = t78 - t79;
        const P t81 = shuffled<1, 3>(t21, t23);
        const P t82 = shuffled<0, 2>(t21, t23);
        // real block of 2
        const P t83 = t81 + t82;
        const P t84 = shuffled<0, 3>(t81, t82);
        const P t85 = shuffled<0, 3>(t82, t81);
        const P t86 = t84 - t85;
        // real block of 2
        const P t87 = t77 + t83;
        const P t88 = shuffled<0, 3>(t77, t83);
        const P t89 = shuffled<0, 3>(t83, t77);
        const P t90 = t88 - t89;
        // real block of 3
        const P t91 = t71 + t87;
        const P t92 = shuffled<0, 3>(t71, t87);
        const P t93 = shuffled<0, 3>(t87, t71);
        const P t94 = t92 - t93;
        const P t95 = t91 + t55;
        const P t96 = P(-c[0], c[0]) * t91;
        const P t97 = flipped<0, 1>(t55);
        const P t98 = t96 + t97;
        // complex block of 3
        const P t99 = t64 + t80;
        const P t100 = t70 + t86;
        const P t101 = t64 - t80;
        const P t102 = t70 - t86;
        const P t103 = t99 + t48;
        const P t104 = t100 + t54;
        const P t105 = c[0] * t99;
        const P t106 = t48 - t105;
        const P t107 = c[0] * t100;
        const P t108 = t54 - t107;
        const P t109 = c[1] * t102;
        const P t110 = t106 + t109;
        const P t111 = c[1] * t101;
        const P t112 = t108 - t111;
        const P t113 = t106 - t109;
        const P t114 = t108 + t111;
        // real block of 3
        const P t115 = t74 + t90;
        const P t116 = t74 - t90;
        const P t117 = t115 + t58;
        const P t118 = c[0] * t115;
        const P t119 = t58 - t118;
        const P t120 = shuffled<0, 2>(t1, t3);
        // complex block of 13, multiplier 4
        const P t121 = t120 + t95;
        const P t122 = P(-c[4], c[4]) * t95;
        const P t123 = flipped<0, 1>(t120);
        const P t124 = t122 + t123;
        const P t125 = shuffled<1, 0>(t114);
        const P t126 = P(-c[5], c[5]) * t125;
        const P t127 = shuffled<1, 0>(t113);
        const P t128 = P(c[6], -c[6]) * t127;
        const P t129 = t126 + t128;
        const P t130 = c[6] * t125;
        const P t131 = c[5] * t127;
        const P t132 = t130 + t131;
        const P t133 = c[14] * t119;
        // real block of 3
        const P t134 = c[1] * t116;
        // complex block of 13, multiplier 4
        const P t135 = c[15] * t134;
        const P t136 = t133 + t135;
        const P t137 = shuffled<1, 0>(t103);
        const P t138 = P(-c[2], c[2]) * t137;
        const P t139 = shuffled<1, 0>(t104);
        const P t140 = P(c[3], -c[3]) * t139;
        const P t141 = t138 + t140;
        const P t142 = c[2] * t139;
        const P t143 = c[3] * t137;
        const P t144 = t142 + t143;
        const P t145 = c[16] * t98;
        // real block of 3
        const P t146 = c[1] * t94;
        // complex block of 13, multiplier 4
        const P t147 = c[17] * t146;
        const P t148 = t145 + t147;
        const P t149 = shuffled<1, 0>(t112);
        const P t150 = P(-c[7], c[7]) * t149;
        const P t151 = shuffled<1, 0>(t110);
        const P t152 = P(c[8], -c[8]) * t151;
        const P t153 = t150 + t152;
        const P t154 = c[8] * t149;
        const P t155 = c[7] * t151;
        const P t156 = t154 + t155;
        // spectrum block of 3
        const P t157 = t124 - t148;
        const P t158 = c[0] * t148;
        const P t159 = t158 + t124;
        const P t160 = c[26] * t146;
        const P t161 = c[27] * t98;
        const P t162 = t160 - t161;
        const P t163 = t159 - t162;
        const P t164 = t159 + t162;
        // complex block of 3
        const P t165 = t156 + t132;
        const P t166 = t153 + t129;
        const P t167 = shuffled<0, 3>(t156, t132);
        const P t168 = shuffled<0, 3>(t132, t156);
        const P t169 = t167 - t168;
        const P t170 = t153 - t129;
        const P t171 = shuffled<0, 3>(t165, t144);
        const P t172 = shuffled<0, 3>(t144, t165);
        const P t173 = t171 - t172;
        const P t174 = t166 + t141;
        const P t175 = c[0] * t165;
        const P t176 = t175 + t144;
        const P t177 = c[0] * t166;
        const P t178 = t141 - t177;
        const P t179 = flipped<1, 0>(t176);
        const P t180 = c[1] * t170;
        const P t181 = t179 + t180;
        const P t182 = c[1] * t169;
        const P t183 = t178 - t182;
        const P t184 = flipped<0, 1>(t180);
        const P t185 = t176 + t184;
        const P t186 = t178 + t182;
        // complex block of 13, multiplier 4
        const P t187 = c[9] * t117;
        // spectrum block of 3
        const P t188 = t136 + t187;
        const P t189 = c[0] * t136;
        const P t190 = t187 - t189;
        const P t191 = c[28] * t134;
        const P t192 = c[29] * t119;
        const P t193 = t191 - t192;
        const P t194 = t190 + t193;
        const P t195 = t190 - t193;
        // spectrum block of 2
        const P t196 = t157 + t188;
        const P t197 = t157 - t188;
        // spectrum block of 2
        const P t198 = t196 + t174;
        const P t199 = t196 - t174;
        // spectrum block of 2
        const P t200 = t197 + t173;
        const P t201 = t197 - t173;
        // spectrum block of 2
        const P t202 = t163 + t194;
        const P t203 = t163 - t194;
        // spectrum block of 2
        const P t204 = t202 + t183;
        const P t205 = t202 - t183;
        // spectrum block of 2
        const P t206 = t203 + t181;
        const P t207 = t203 - t181;
        // spectrum block of 2
        const P t208 = t164 + t195;
        const P t209 = t164 - t195;
        // spectrum block of 2
        const P t210 = t208 + t186;
        const P t211 = t208 - t186;
        const P t212 = flipped<1, 0>(t185);
        // spectrum block of 2
        const P t213 = t209 + t212;
        const P t214 = t209 - t212;
        const P t215 = shuffled<1, 3>(t10, t11);
        const P t216 = shuffled<1, 3>(t30, t31);
        // real block of 3
        const P t217 = t215 + t216;
        const P t218 = t215 - t216;
        const P t219 = shuffled<1, 3>(t4, t5);
        const P t220 = t217 + t219;
        const P t221 = c[0] * t217;
        const P t222 = t219 - t221;
        const P t223 = shuffled<1, 3>(t36, t37);
        const P t224 = shuffled<1, 3>(t24, t25);
        // real block of 3
        const P t225 = t223 + t224;
        const P t226 = t223 - t224;
        const P t227 = shuffled<0, 2>(t30, t31);
        const P t228 = t225 + t227;
        const P t229 = c[0] * t225;
        const P t230 = t227 - t229;
        const P t231 = shuffled<0, 2>(t36, t37);
        const P t232 = shuffled<0, 2>(t18, t19);
        // real block of 3
        const P t233 = t231 + t232;
        const P t234 = t231 - t232;
        const P t235 = joined(t42, t43);
        const P t236 = t233 + t235;
        const P t237 = c[0] * t233;
        const P t238 = t235 - t237;
        const P t239 = shuffled<0, 2>(t10, t11);
        const P t240 = shuffled<0, 2>(t24, t25);
        // real block of 3
        const P t241 = t239 + t240;
        const P t242 = t239 - t240;
        const P t243 = shuffled<1, 3>(t18, t19);
        const P t244 = t241 + t243;
        const P t245 = c[0] * t241;
        const P t246 = t243 - t245;
        // real block of 2
        const P t247 = t220 + t236;
        const P t248 = t220 - t236;
        // real block of 2
        const P t249 = t228 + t244;
        const P t250 = t228 - t244;
        // real block of 2
        const P t251 = t247 + t249;
        const P t252 = t247 - t249;
        // complex block of 2
        const P t253 = t222 + t238;
        // real block of 3
        const P t254 = c[1] * t218;
        // real block of 3
        const P t255 = c[1] * t234;
        // complex block of 2
        const P t256 = t254 + t255;
        const P t257 = t222 - t238;
        const P t258 = t255 - t254;
        // complex block of 2
        const P t259 = t230 + t246;
        // real block of 3
        const P t260 = c[1] * t226;
        // real block of 3
        const P t261 = c[1] * t242;
        // complex block of 2
        const P t262 = t260 + t261;
        const P t263 = t230 - t246;
        const P t264 = t261 - t260;
        // complex block of 2
        const P t265 = t253 + t259;
        const P t266 = t256 + t262;
        const P t267 = t253 - t259;
        const P t268 = t262 - t256;
        // complex block of 2
        const P t269 = t257 - t264;
        const P t270 = t258 + t263;
        const P t271 = t257 + t264;
        const P t272 = t258 - t263;
        const P t273 = shuffled<0, 2>(t4, t5);
        // real block of 13, multiplier 4
        const P t274 = t273 + t251;
        const P t275 = c[4] * t251;
        const P t276 = t273 - t275;
        const P t277 = c[6] * t272;
        const P t278 = c[5] * t271;
        const P t279 = t277 - t278;
        const P t280 = c[5] * t272;
        const P t281 = c[6] * t271;
        const P t282 = t280 + t281;
        const P t283 = c[14] * t267;
        const P t284 = c[15] * t268;
        const P t285 = t283 - t284;
        const P t286 = c[14] * t268;
        const P t287 = c[15] * t267;
        const P t288 = t286 + t287;
        const P t289 = c[3] * t248;
        const P t290 = c[2] * t250;
        const P t291 = t289 + t290;
        const P t292 = c[2] * t248;
        const P t293 = c[3] * t250;
        const P t294 = t292 - t293;
        const P t295 = c[16] * t265;
        const P t296 = c[17] * t266;
        const P t297 = t295 + t296;
        const P t298 = c[16] * t266;
        const P t299 = c[17] * t265;
        const P t300 = t298 - t299;
        const P t301 = c[7] * t269;
        const P t302 = c[8] * t270;
        const P t303 = t301 + t302;
        const P t304 = c[7] * t270;
        const P t305 = c[8] * t269;
        const P t306 = t304 - t305;
        const P t307 = c[9] * t252;
        // spectrum block of 2
        const P t308 = t276 + t307;
        const P t309 = t276 - t307;
        // complex block of 2
        const P t310 = t300 + t288;
        const P t311 = t285 - t297;
        const P t312 = t300 - t288;
        const P t313 = t297 + t285;
        // spectrum block of 3, multiplier 2
        const P t314 = t311 + t308;
        const P t315 = c[0] * t311;
        const P t316 = t308 - t315;
        const P t317 = c[1] * t310;
        const P t318 = t316 - t317;
        const P t319 = t316 + t317;
        // spectrum block of 3, multiplier 2
        const P t320 = t309 - t313;
        const P t321 = c[0] * t313;
        const P t322 = t321 + t309;
        const P t323 = c[1] * t312;
        const P t324 = t322 - t323;
        const P t325 = t322 + t323;
        // complex block of 2
        const P t326 = t279 + t303;
        const P t327 = t306 - t282;
        const P t328 = t303 - t279;
        const P t329 = t282 + t306;
        // mirrored skew block of 6
        const P t330 = c[1] * t329;
        const P t331 = c[0] * t328;
        const P t332 = t330 + t331;
        // spectrum block of 3, multiplier 2
        const P t333 = t327 + t294;
        const P t334 = c[0] * t327;
        const P t335 = t294 - t334;
        const P t336 = c[1] * t326;
        const P t337 = t335 - t336;
        const P t338 = t335 + t336;
        // spectrum block of 3, multiplier 2
        const P t339 = t332 + t291;
        const P t340 = c[0] * t332;
        const P t341 = t340 - t291;
        const P t342 = c[30] * t328;
        const P t343 = c[31] * t329;
        const P t344 = t342 - t343;
        const P t345 = t341 + t344;
        const P t346 = t341 - t344;
        const V x0 = io.in(0);
        const V t347 = part<0>(t274);
        // real block of 53
        const V t348 = x0 + t347;
        io.re(0, t348);
        const V t349 = c[94] * t347;
        const V t350 = t349 - x0;
        const P t351 = c[32] * t211;
        const P t352 = shuffled<1, 0>(t211);
        const P t353 = P(c[33], -c[33]) * t352;
        const P t354 = t351 + t353;
        const P t355 = shuffled<1, 3>(t324, t339);
        const P t356 = c[34] * t355;
        const P t357 = shuffled<1, 0>(t355);
        const P t358 = P(-c[35], c[35]) * t357;
        const P t359 = t356 + t358;
        const P t360 = c[36] * t204;
        const P t361 = shuffled<1, 0>(t204);
        const P t362 = P(-c[37], c[37]) * t361;
        const P t363 = t360 + t362;
        const P t364 = shuffled<0, 2>(t314, t333);
        const P t365 = c[38] * t364;
        const P t366 = shuffled<1, 0>(t364);
        const P t367 = P(-c[39], c[39]) * t366;
        const P t368 = t365 + t367;
        const P t369 = c[40] * t214;
        const P t370 = shuffled<1, 0>(t214);
        const P t371 = P(-c[41], c[41]) * t370;
        const P t372 = t369 + t371;
        const P t373 = shuffled<1, 3>(t320, t345);
        const P t374 = c[42] * t373;
        const P t375 = shuffled<1, 0>(t373);
        const P t376 = P(-c[43], c[43]) * t375;
        const P t377 = t374 + t376;
        const P t378 = shuffled<1, 0>(t201);
        const P t379 = c[44] * t378;
        const P t380 = P(c[45], -c[45]) * t201;
        const P t381 = t379 + t380;
        const P t382 = shuffled<0, 2>(t346, t325);
        const P t383 = c[46] * t382;
        const P t384 = shuffled<1, 0>(t382);
        const P t385 = P(c[47], -c[47]) * t384;
        const P t386 = t383 + t385;
        const P t387 = c[48] * t199;
        const P t388 = shuffled<1, 0>(t199);
        const P t389 = P(-c[49], c[49]) * t388;
        const P t390 = t387 + t389;
        const P t391 = shuffled<1, 3>(t338, t318);
        const P t392 = c[50] * t391;
        const P t393 = shuffled<1, 0>(t391);
        const P t394 = P(c[51], -c[51]) * t393;
        const P t395 = t392 + t394;
        const P t396 = c[52] * t207;
        const P t397 = shuffled<1, 0>(t207);
        const P t398 = P(-c[53], c[53]) * t397;
        const P t399 = t396 + t398;
        const P t400 = shuffled<0, 2>(t319, t337);
        const P t401 = c[54] * t400;
        const P t402 = shuffled<1, 0>(t400);
        const P t403 = P(-c[55], c[55]) * t402;
        const P t404 = t401 + t403;
        const P t405 = P(-c[56], c[56]) * t121;
        const P t406 = shuffled<1, 0>(t121);
        const P t407 = c[57] * t406;
        const P t408 = t405 + t407;
        const P t409 = shuffled<1, 3>(t319, t337);
        const P t410 = c[58] * t409;
        const P t411 = shuffled<1, 0>(t409);
        const P t412 = P(-c[59], c[59]) * t411;
        const P t413 = t410 + t412;
        const P t414 = c[60] * t206;
        const P t415 = shuffled<1, 0>(t206);
        const P t416 = P(c[61], -c[61]) * t415;
        const P t417 = t414 + t416;
        const P t418 = shuffled<0, 2>(t318, t338);
        const P t419 = P(-c[62], c[62]) * t418;
        const P t420 = shuffled<1, 0>(t418);
        const P t421 = c[63] * t420;
        const P t422 = t419 + t421;
        const P t423 = c[64] * t198;
        const P t424 = shuffled<1, 0>(t198);
        const P t425 = P(c[65], -c[65]) * t424;
        const P t426 = t423 + t425;
        const P t427 = shuffled<1, 3>(t325, t346);
        const P t428 = c[66] * t427;
        const P t429 = shuffled<1, 0>(t427);
        const P t430 = P(-c[67], c[67]) * t429;
        const P t431 = t428 + t430;
        const P t432 = shuffled<1, 0>(t200);
        const P t433 = c[68] * t432;
        const P t434 = P(c[69], -c[69]) * t200;
        const P t435 = t433 + t434;
        const P t436 = shuffled<0, 2>(t345, t320);
        const P t437 = c[70] * t436;
        const P t438 = shuffled<1, 0>(t436);
        const P t439 = P(c[71], -c[71]) * t438;
        const P t440 = t437 + t439;
        const P t441 = P(-c[72], c[72]) * t213;
        const P t442 = shuffled<1, 0>(t213);
        const P t443 = c[73] * t442;
        const P t444 = t441 + t443;
        const P t445 = shuffled<1, 3>(t333, t314);
        const P t446 = c[74] * t445;
        const P t447 = shuffled<1, 0>(t445);
        const P t448 = P(c[75], -c[75]) * t447;
        const P t449 = t446 + t448;
        const P t450 = shuffled<1, 0>(t205);
        const P t451 = c[76] * t450;
        const P t452 = P(c[77], -c[77]) * t205;
        const P t453 = t451 + t452;
        const P t454 = shuffled<0, 2>(t324, t339);
        const P t455 = c[78] * t454;
        const P t456 = shuffled<1, 0>(t454);
        const P t457 = P(c[79], -c[79]) * t456;
        const P t458 = t455 + t457;
        const P t459 = P(-c[80], c[80]) * t210;
        const P t460 = shuffled<1, 0>(t210);
        const P t461 = c[81] * t460;
        const P t462 = t459 + t461;
        const V t463 = part<1>(t274);
        const V t464 = c[95] * t463;
        // spectrum block of 2
        const V t465 = t464 - t350;
        const V t466 = t350 + t464;
        const P t467 = flipped<0, 1>(t449);
        // complex block of 2
        const P t468 = t368 + t467;
        const P t469 = t368 - t467;
        const P t470 = flipped<0, 1>(t431);
        // complex block of 2
        const P t471 = t386 + t470;
        const P t472 = t386 - t470;
        // complex block of 2
        const P t473 = t404 + t413;
        const P t474 = t404 - t413;
        // complex block of 2
        const P t475 = t422 - t395;
        const P t476 = t422 + t395;
        const P t477 = flipped<0, 1>(t377);
        // complex block of 2
        const P t478 = t440 + t477;
        const P t479 = t440 - t477;
        // complex block of 2
        const P t480 = t458 + t359;
        const P t481 = t458 - t359;
        const P t482 = shuffled<0, 2>(t475, t476);
        const P t483 = shuffled<0, 2>(t473, t474);
        // real block of 3, multiplier 2
        const P t484 = t482 + t483;
        const P t485 = t482 - t483;
        const P t486 = shuffled<0, 2>(t468, t469);
        const P t487 = t484 + t486;
        const P t488 = c[0] * t484;
        const P t489 = t486 - t488;
        const P t490 = shuffled<0, 2>(t480, t481);
        const P t491 = shuffled<0, 2>(t471, t472);
        // real block of 3, multiplier 2
        const P t492 = t490 + t491;
        const P t493 = t490 - t491;
        const P t494 = shuffled<0, 2>(t478, t479);
        const P t495 = t492 + t494;
        const P t496 = c[0] * t492;
        const P t497 = t494 - t496;
        // real block of 2
        const P t498 = t487 + t495;
        const P t499 = t487 - t495;
        // complex block of 2
        const P t500 = t489 + t497;
        // real block of 3, multiplier 2
        const P t501 = c[1] * t485;
        // real block of 3, multiplier 2
        const P t502 = c[1] * t493;
        // complex block of 2
        const P t503 = t501 + t502;
        const P t504 = t489 - t497;
        const P t505 = t501 - t502;
        const P t506 = shuffled<1, 3>(t471, t472);
        // skew block of 6
        const P t507 = c[1] * t506;
        const P t508 = shuffled<1, 3>(t473, t474);
        const P t509 = c[0] * t508;
        const P t510 = t507 - t509;
        const P t511 = c[1] * t508;
        const P t512 = c[0] * t506;
        const P t513 = t511 + t512;
        const P t514 = shuffled<1, 3>(t475, t476);
        const P t515 = c[0] * t514;
        const P t516 = shuffled<1, 3>(t480, t481);
        const P t517 = c[1] * t516;
        const P t518 = t515 - t517;
        const P t519 = c[0] * t516;
        const P t520 = c[1] * t514;
        const P t521 = t519 + t520;
        // complex block of 3
        const P t522 = t510 + t518;
        const P t523 = t513 + t521;
        const P t524 = t510 - t518;
        const P t525 = t521 - t513;
        const P t526 = shuffled<1, 3>(t468, t469);
        const P t527 = t522 + t526;
        const P t528 = shuffled<1, 3>(t478, t479);
        const P t529 = t528 - t523;
        const P t530 = c[0] * t522;
        const P t531 = t526 - t530;
        const P t532 = c[0] * t523;
        const P t533 = t532 + t528;
        const P t534 = c[1] * t525;
        const P t535 = t531 + t534;
        const P t536 = c[1] * t524;
        const P t537 = t533 - t536;
        const P t538 = t531 - t534;
        const P t539 = t533 + t536;
        const V t540 = flipped<1>(t465);
        const P t541 = joined(t540, t466);
        // spectrum block of 13, multiplier 2
        const P t542 = c[4] * t498;
        const P t543 = t541 + t542;
        const P t544 = c[10] * t529;
        const P t545 = c[11] * t527;
        const P t546 = t544 - t545;
        const P t547 = c[11] * t529;
        const P t548 = c[10] * t527;
        const P t549 = t547 + t548;
        const P t550 = c[18] * t504;
        const P t551 = c[19] * t505;
        const P t552 = t550 - t551;
        const P t553 = c[2] * t539;
        const P t554 = c[3] * t538;
        const P t555 = t553 - t554;
        const P t556 = c[3] * t539;
        const P t557 = c[2] * t538;
        const P t558 = t556 + t557;
        const P t559 = c[20] * t500;
        const P t560 = c[21] * t503;
        const P t561 = t559 + t560;
        const P t562 = c[12] * t535;
        const P t563 = c[13] * t537;
        const P t564 = t562 + t563;
        const P t565 = c[12] * t537;
        const P t566 = c[13] * t535;
        const P t567 = t565 - t566;
        // spectrum block of 3
        const P t568 = t561 - t543;
        const P t569 = c[0] * t561;
        const P t570 = t543 + t569;
        const P t571 = c[22] * t503;
        const P t572 = c[23] * t500;
        const P t573 = t571 - t572;
        const P t574 = t570 + t573;
        const P t575 = t573 - t570;
        // complex block of 3
        const P t576 = t549 - t567;
        const P t577 = t564 + t546;
        const P t578 = t567 + t549;
        const P t579 = t564 - t546;
        const P t580 = t576 + t558;
        const P t581 = t577 + t555;
        const P t582 = c[0] * t576;
        const P t583 = t558 - t582;
        const P t584 = c[0] * t577;
        const P t585 = t555 - t584;
        const P t586 = c[1] * t579;
        const P t587 = t583 + t586;
        const P t588 = c[1] * t578;
        const P t589 = t585 + t588;
        const P t590 = t583 - t586;
        const P t591 = t585 - t588;
        // spectrum block of 13, multiplier 2
        const P t592 = c[9] * t499;
        // spectrum block of 3
        const P t593 = t552 - t592;
        const P t594 = c[0] * t552;
        const P t595 = t592 + t594;
        const P t596 = c[24] * t505;
        const P t597 = c[25] * t504;
        const P t598 = t596 + t597;
        const P t599 = t595 + t598;
        const P t600 = t598 - t595;
        // spectrum block of 2
        const P t601 = t568 + t593;
        const P t602 = t568 - t593;
        // spectrum block of 2
        const P t603 = t601 + t581;
        const P t604 = t601 - t581;
        // spectrum block of 2
        const P t605 = t602 + t580;
        const P t606 = t602 - t580;
        // spectrum block of 2
        const P t607 = t574 + t599;
        const P t608 = t599 - t574;
        // spectrum block of 2
        const P t609 = t589 - t607;
        const P t610 = t607 + t589;
        // spectrum block of 2
        const P t611 = t608 + t587;
        const P t612 = t608 - t587;
        // spectrum block of 2
        const P t613 = t575 + t600;
        const P t614 = t575 - t600;
        // spectrum block of 2
        const P t615 = t613 + t591;
        const P t616 = t613 - t591;
        // spectrum block of 2
        const P t617 = t614 + t590;
        const P t618 = t614 - t590;
        // spectrum block of 13, multiplier 2
        const P t619 = t498 - t541;
        const P t620 = shuffled<1, 2>(t354, t462);
        const P t621 = shuffled<1, 2>(t462, t354);
        // complex block of 2
        const P t622 = t620 - t621;
        const P t623 = t621 + t620;
        const P t624 = shuffled<1, 0>(t623);
        // mirrored skew block of 26
        const P t625 = c[82] * t624;
        const P t626 = P(c[83], -c[83]) * t623;
        const P t627 = t625 + t626;
        const P t628 = shuffled<1, 0>(t453);
        const P t629 = shuffled<1, 0>(t363);
        // complex block of 2
        const P t630 = t628 - t629;
        const P t631 = t629 + t628;
        // mirrored skew block of 26
        const P t632 = P(-c[84], c[84]) * t631;
        const P t633 = shuffled<1, 0>(t631);
        const P t634 = c[85] * t633;
        const P t635 = t632 + t634;
        const P t636 = shuffled<1, 2>(t372, t444);
        const P t637 = shuffled<1, 2>(t444, t372);
        // complex block of 2
        const P t638 = t636 - t637;
        const P t639 = t637 + t636;
        const P t640 = shuffled<1, 0>(t639);
        // mirrored skew block of 26
        const P t641 = c[86] * t640;
        const P t642 = P(c[87], -c[87]) * t639;
        const P t643 = t641 + t642;
        const P t644 = shuffled<1, 2>(t381, t435);
        const P t645 = shuffled<1, 2>(t435, t381);
        const P t646 = flipped<0, 1>(t645);
        // complex block of 2
        const P t647 = t644 + t646;
        const P t648 = t644 - t646;
        const P t649 = shuffled<1, 0>(t648);
        // mirrored skew block of 26
        const P t650 = c[88] * t649;
        const P t651 = P(c[89], -c[89]) * t648;
        const P t652 = t650 + t651;
        const P t653 = shuffled<1, 2>(t390, t426);
        const P t654 = shuffled<1, 2>(t426, t390);
        const P t655 = flipped<0, 1>(t654);
        // complex block of 2
        const P t656 = t653 + t655;
        const P t657 = t653 - t655;
        const P t658 = shuffled<1, 0>(t657);
        // mirrored skew block of 26
        const P t659 = c[90] * t658;
        const P t660 = P(c[91], -c[91]) * t657;
        const P t661 = t659 + t660;
        const P t662 = shuffled<1, 2>(t417, t399);
        const P t663 = shuffled<1, 2>(t399, t417);
        const P t664 = flipped<1, 0>(t663);
        // complex block of 2
        const P t665 = t662 + t664;
        const P t666 = flipped<0, 1>(t662);
        const P t667 = t663 + t666;
        // mirrored skew block of 26
        const P t668 = c[92] * t667;
        const P t669 = shuffled<1, 0>(t667);
        const P t670 = P(c[93], -c[93]) * t669;
        const P t671 = t668 + t670;
        const P t672 = shuffled<0, 2>(t638, t643);
        const P t673 = shuffled<0, 2>(t647, t652);
        // real block of 3, multiplier 2
        const P t674 = t672 + t673;
        const P t675 = t672 - t673;
        const P t676 = shuffled<0, 2>(t665, t671);
        const P t677 = flipped<0, 1>(t676);
        const P t678 = t674 + t677;
        const P t679 = P(-c[0], c[0]) * t674;
        const P t680 = t676 + t679;
        const P t681 = shuffled<0, 2>(t622, t627);
        const P t682 = shuffled<0, 2>(t656, t661);
        // real block of 3, multiplier 2
        const P t683 = t681 + t682;
        const P t684 = t681 - t682;
        const P t685 = shuffled<0, 2>(t630, t635);
        const P t686 = t683 + t685;
        const P t687 = c[0] * t683;
        const P t688 = t685 - t687;
        // real block of 2
        const P t689 = t678 + t686;
        const P t690 = t678 - t686;
        const P t691 = flipped<0, 1>(t680);
        // complex block of 2
        const P t692 = t688 + t691;
        // real block of 3, multiplier 2
        const P t693 = c[1] * t675;
        // real block of 3, multiplier 2
        const P t694 = c[1] * t684;
        // complex block of 2
        const P t695 = t693 + t694;
        const P t696 = flipped<1, 0>(t688);
        const P t697 = t680 + t696;
        const P t698 = t693 - t694;
        const P t699 = shuffled<1, 3>(t647, t652);
        // skew block of 6
        const P t700 = c[0] * t699;
        const P t701 = shuffled<1, 3>(t656, t661);
        const P t702 = c[1] * t701;
        const P t703 = t700 - t702;
        const P t704 = c[1] * t699;
        const P t705 = c[0] * t701;
        const P t706 = t704 + t705;
        const P t707 = shuffled<1, 3>(t622, t627);
        const P t708 = c[1] * t707;
        const P t709 = shuffled<1, 3>(t638, t643);
        const P t710 = c[0] * t709;
        const P t711 = t708 - t710;
        const P t712 = c[0] * t707;
        const P t713 = c[1] * t709;
        const P t714 = t712 + t713;
        // complex block of 3
        const P t715 = t703 + t711;
        const P t716 = t706 + t714;
        const P t717 = t703 - t711;
        const P t718 = t706 - t714;
        const P t719 = shuffled<1, 3>(t665, t671);
        const P t720 = flipped<0, 1>(t719);
        const P t721 = t715 + t720;
        const P t722 = shuffled<1, 3>(t630, t635);
        const P t723 = flipped<1, 0>(t722);
        const P t724 = t716 + t723;
        const P t725 = P(-c[0], c[0]) * t715;
        const P t726 = t719 + t725;
        const P t727 = P(c[0], -c[0]) * t716;
        const P t728 = t722 + t727;
        const P t729 = c[1] * t718;
        const P t730 = flipped<0, 1>(t726);
        const P t731 = t729 + t730;
        const P t732 = P(c[1], -c[1]) * t717;
        const P t733 = t728 + t732;
        const P t734 = flipped<1, 0>(t729);
        const P t735 = t726 + t734;
        const P t736 = shuffled<0, 3>(t732, t728);
        const P t737 = shuffled<0, 3>(t728, t732);
        const P t738 = t736 - t737;
        const P t739 = shuffled<1, 0>(t408);
        // spectrum block of 13, multiplier 2
        const P t740 = c[4] * t689;
        const P t741 = t739 - t740;
        const P t742 = c[10] * t724;
        const P t743 = c[11] * t721;
        const P t744 = t742 - t743;
        const P t745 = c[11] * t724;
        const P t746 = c[10] * t721;
        const P t747 = t745 + t746;
        const P t748 = c[18] * t697;
        const P t749 = P(-c[19], c[19]) * t698;
        const P t750 = t748 + t749;
        const P t751 = P(-c[3], c[3]) * t735;
        const P t752 = c[2] * t738;
        const P t753 = t751 + t752;
        const P t754 = c[3] * t738;
        const P t755 = P(c[2], -c[2]) * t735;
        const P t756 = t754 + t755;
        const P t757 = c[20] * t692;
        const P t758 = c[21] * t695;
        const P t759 = t757 + t758;
        const P t760 = c[12] * t731;
        const P t761 = P(-c[13], c[13]) * t733;
        const P t762 = t760 + t761;
        const P t763 = c[12] * t733;
        const P t764 = P(c[13], -c[13]) * t731;
        const P t765 = t763 + t764;
        // spectrum block of 3
        const P t766 = t759 + t741;
        const P t767 = c[0] * t759;
        const P t768 = t741 - t767;
        const P t769 = c[22] * t695;
        const P t770 = c[23] * t692;
        const P t771 = t769 - t770;
        const P t772 = t768 - t771;
        const P t773 = t768 + t771;
        const P t774 = flipped<0, 1>(t765);
        // complex block of 3
        const P t775 = t747 + t774;
        const P t776 = t762 + t744;
        const P t777 = flipped<1, 0>(t747);
        const P t778 = t765 + t777;
        const P t779 = t762 - t744;
        const P t780 = t775 + t756;
        const P t781 = t776 + t753;
        const P t782 = c[0] * t775;
        const P t783 = t756 - t782;
        const P t784 = c[0] * t776;
        const P t785 = t753 - t784;
        const P t786 = c[1] * t779;
        const P t787 = t783 + t786;
        const P t788 = P(-c[1], c[1]) * t778;
        const P t789 = t785 + t788;
        const P t790 = t783 - t786;
        const P t791 = t785 - t788;
        // spectrum block of 13, multiplier 2
        const P t792 = P(-c[9], c[9]) * t690;
        // spectrum block of 3
        const P t793 = t750 + t792;
        const P t794 = c[0] * t750;
        const P t795 = t794 - t792;
        const P t796 = shuffled<0, 3>(t698, t697);
        const P t797 = P(c[24], c[25]) * t796;
        const P t798 = shuffled<0, 3>(t697, t698);
        const P t799 = P(c[25], -c[24]) * t798;
        const P t800 = t797 + t799;
        const P t801 = t795 + t800;
        const P t802 = shuffled<0, 3>(t800, t795);
        const P t803 = shuffled<0, 3>(t795, t800);
        const P t804 = t802 - t803;
        const P t805 = flipped<0, 1>(t793);
        // spectrum block of 2
        const P t806 = t766 + t805;
        const P t807 = t766 - t805;
        // spectrum block of 2
        const P t808 = t806 + t781;
        const P t809 = shuffled<1, 3>(t609, t808);
        io.pair(5, t809);
        const P t810 = shuffled<0, 2>(t617, t808);
        io.pair(10, t810);
        const P t811 = t806 - t781;
        const P t812 = shuffled<1, 3>(t605, t811);
        io.pair(8, t812);
        const P t813 = shuffled<0, 2>(t618, t811);
        io.pair(16, t813);
        // spectrum block of 2
        const P t814 = t807 + t780;
        const P t815 = shuffled<0, 2>(t616, t814);
        io.pair(11, negated<0, 1>(t815));
        const P t816 = shuffled<1, 3>(t610, t814);
        io.pair(21, negated<1, 0>(t816));
        const P t817 = t807 - t780;
        const P t818 = shuffled<1, 3>(t616, t817);
        io.pair(12, t818);
        const P t819 = shuffled<0, 2>(t615, t817);
        io.pair(24, t819);
        const P t820 = flipped<1, 0>(t801);
        // spectrum block of 2
        const P t821 = t772 + t820;
        const P t822 = t772 - t820;
        // spectrum block of 2
        const P t823 = t821 + t789;
        const P t824 = shuffled<1, 3>(t604, t823);
        io.pair(14, t824);
        const P t825 = shuffled<0, 2>(t605, t823);
        io.pair(25, negated<0, 1>(t825));
        const P t826 = t821 - t789;
        const P t827 = shuffled<0, 2>(t606, t826);
        io.pair(17, negated<0, 1>(t827));
        const P t828 = shuffled<1, 3>(t617, t826);
        io.pair(18, t828);
        // spectrum block of 2
        const P t829 = t822 + t787;
        const P t830 = shuffled<1, 3>(t611, t829);
        io.pair(2, negated<0, 1>(t830));
        const P t831 = shuffled<0, 2>(t604, t829);
        io.pair(4, negated<0, 1>(t831));
        const P t832 = t822 - t787;
        const P t833 = shuffled<0, 2>(t603, t832);
        io.pair(13, t833);
        const P t834 = shuffled<1, 3>(t606, t832);
        io.pair(20, negated<0, 1>(t834));
        // spectrum block of 2
        const P t835 = t773 + t804;
        const P t836 = t773 - t804;
        // spectrum block of 2
        const P t837 = t835 + t791;
        const P t838 = shuffled<0, 2>(t611, t837);
        io.pair(7, negated<0, 1>(t838));
        const P t839 = shuffled<1, 3>(t619, t837);
        io.pair(23, t839);
        const P t840 = t835 - t791;
        const P t841 = shuffled<0, 2>(t612, t840);
        io.pair(15, t841);
        const P t842 = shuffled<1, 3>(t603, t840);
        io.pair(19, negated<0, 1>(t842));
        // spectrum block of 2
        const P t843 = t836 + t790;
        const P t844 = shuffled<1, 3>(t618, t843);
        io.pair(3, negated<0, 1>(t844));
        const P t845 = shuffled<0, 2>(t610, t843);
        io.pair(6, negated<1, 1>(t845));
        const P t846 = t836 - t790;
        const P t847 = shuffled<0, 2>(t609, t846);
        io.pair(9, negated<0, 1>(t847));
        const P t848 = shuffled<1, 3>(t615, t846);
        io.pair(22, t848);
        // spectrum block of 13, multiplier 2
        const P t849 = t739 + t689;
        const P t850 = shuffled<0, 2>(t619, t849);
        io.pair(1, t850);
        const P t851 = shuffled<1, 3>(t612, t849);
        io.pair(26, negated<0, 1>(t851));
    }
};

}  // namespace zulg
