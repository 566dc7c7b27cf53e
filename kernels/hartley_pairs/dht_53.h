// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 53.
// Hartley transform of 53 points, form I; two lanes to a register.
// 262 sums, 187 differences, 226 products of registers, which do the 1395 steps of the graph, those with
// `scale` included; 150 shuffles, 32 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<53> {
    static constexpr int steps = 1395;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5751407294740031,  // c[2]: -Q[3] of 13
        0.1741386011521359,  // c[3]: -P[3] of 13
        0.08333333333333333,  // c[4]: 1/12
        0.3004626062886658,  // c[5]: -beta of 13
        0.6007253775544544,  // c[6]: -Q[1] of 13
        0.015496188988565054,  // c[7]: P[1] of 13
        0.5084294662830964,  // c[8]: -Q[5] of 13
        0.3203288761978803,  // c[9]: P[5] of 13
        0.2869425954512852,  // c[10]: P[1] of 13
        0.5279915321544383,  // c[11]: -Q[1] of 13
        0.5242266395265821,  // c[12]: P[2] of 13
        0.29376443202296976,  // c[13]: -Q[2] of 13
        0.42763404682657274,  // c[14]: P[4] of 13
        0.42218506973345193,  // c[15]: -Q[4] of 13
        0.5316276774946329,  // c[16]: P[5] of 13
        0.280148395734785,  // c[17]: Q[5] of 13
        0.4330127018922193,  // c[18]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[19]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.5124953431658732,  // c[20]: P[1] of 13
        0.31378278210316923,  // c[21]: -Q[1] of 13
        0.5165207806234897,  // c[22]: P[2] of 13
        0.3071113711590828,  // c[23]: Q[2] of 13
        0.15180597207438773,  // c[24]: P[4] of 13
        0.5814344829416822,  // c[25]: Q[4] of 13
        0.02319821121153658,  // c[26]: Q[5] of 13
        0.6004772719326653,  // c[27]: -P[5] of 13
        0.007705858903092426,  // c[28]: P[2] of 13
        0.6008758031820526,  // c[29]: -Q[2] of 13
        0.5794400189009605,  // c[30]: -P[4] of 13
        0.15924941320823024,  // c[31]: -Q[4] of 13
        0.5018097763375671,  // c[32]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[33]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[34]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[35]: sin 2 pi 1/3 times -Q[2] of 13
        0.992708874098054,  // c[36]: cos 2 pi 1/52
        0.12053668025532305,  // c[37]: sin 2 pi 1/52
        0.9350162426854148,  // c[38]: cos 2 pi 3/52
        0.3546048870425356,  // c[39]: sin 2 pi 3/52
        0.8229838658936564,  // c[40]: cos 2 pi 5/52
        0.5680647467311558,  // c[41]: sin 2 pi 5/52
        0.6631226582407952,  // c[42]: cos 2 pi 7/52
        0.7485107481711011,  // c[43]: sin 2 pi 7/52
        0.46472317204376856,  // c[44]: cos 2 pi 9/52
        0.8854560256532099,  // c[45]: sin 2 pi 9/52
        0.23931566428755777,  // c[46]: cos 2 pi 11/52
        0.970941817426052,  // c[47]: sin 2 pi 11/52
        0.11888864474491956,  // c[48]: -Q[1] of 53
        0.2535110589592131,  // c[49]: -P[1] of 53
        0.2471500091242084,  // c[50]: P[2] of 53
        0.13160258300584013,  // c[51]: -Q[2] of 53
        0.27934484277921784,  // c[52]: -Q[3] of 53
        0.01920483471835668,  // c[53]: -P[3] of 53
        0.049641770378907886,  // c[54]: P[4] of 53
        0.2755686148630738,  // c[55]: Q[4] of 53
        0.26663047052332334,  // c[56]: Q[5] of 53
        0.08550180730497182,  // c[57]: -P[5] of 53
        0.21010412063116707,  // c[58]: Q[6] of 53
        0.18509085703434766,  // c[59]: P[6] of 53
        0.2786708556034366,  // c[60]: Q[7] of 53
        0.02729324277461261,  // c[61]: -P[7] of 53
        0.27887234952845297,  // c[62]: Q[8] of 53
        0.02515113381908794,  // c[63]: P[8] of 53
        0.02027467783966699,  // c[64]: Q[9] of 53
        0.27926923264549397,  // c[65]: -P[9] of 53
        0.14060198882334973,  // c[66]: -P[10] of 53
        0.2421434442697633,  // c[67]: Q[10] of 53
        0.15489151598012768,  // c[68]: -Q[11] of 53
        0.23326162380743898,  // c[69]: -P[11] of 53
        0.20532068893261132,  // c[70]: P[12] of 53
        0.1903832491584887,  // c[71]: Q[12] of 53
        0.27729778231647617,  // c[72]: P[13] of 53
        0.038836925551200704,  // c[73]: Q[13] of 53
        0.09172503255893466,  // c[74]: P[14] of 53
        0.2645541253996386,  // c[75]: -Q[14] of 53
        0.2603347814141748,  // c[76]: -Q[15] of 53
        0.10309300873453617,  // c[77]: P[15] of 53
        0.04985858822323415,  // c[78]: Q[16] of 53
        0.27552946855879373,  // c[79]: -P[16] of 53
        0.27294272954157833,  // c[80]: -Q[17] of 53
        0.062487064695808406,  // c[81]: -P[17] of 53
        0.12218648440059575,  // c[82]: Q[18] of 53
        0.2519381469601781,  // c[83]: P[18] of 53
        0.26661085340441376,  // c[84]: Q[19] of 53
        0.0855629575860694,  // c[85]: -P[19] of 53
        0.279948840618166,  // c[86]: Q[20] of 53
        0.005568976607062611,  // c[87]: P[20] of 53
        0.10175361370042776,  // c[88]: -Q[21] of 53
        0.2608612063201607,  // c[89]: P[21] of 53
        0.21551686731931244,  // c[90]: Q[22] of 53
        0.17875918651855408,  // c[91]: P[22] of 53
        0.2795810907749542,  // c[92]: Q[23] of 53
        0.015387675100292094,  // c[93]: -P[23] of 53
        0.04799540743714245,  // c[94]: P[24] of 53
        0.2758601234844355,  // c[95]: -Q[24] of 53
        0.08072191645791539,  // c[96]: -Q[25] of 53
        0.26811627900458906,  // c[97]: P[25] of 53
        0.019230769230769232,  // c[98]: 1/52
        0.14000211325539458,  // c[99]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x52_51 = io.in(52, 51);
        // input stage
        const P t0 = x1_2 + x52_51;
        const P t1 = x1_2 - x52_51;
        const P x3_4 = io.in(3, 4);
        const P x50_49 = io.in(50, 49);
        const P t2 = x3_4 + x50_49;
        const P t3 = x3_4 - x50_49;
        const P x5_6 = io.in(5, 6);
        const P x48_47 = io.in(48, 47);
        const P t4 = x5_6 + x48_47;
        const P t5 = x5_6 - x48_47;
        const P x7_8 = io.in(7, 8);
        const P x46_45 = io.in(46, 45);
        const P t6 = x7_8 + x46_45;
        const P t7 = x7_8 - x46_45;
        const P x9_10 = io.in(9, 10);
        const P x44_43 = io.in(44, 43);
        const P t8 = x9_10 + x44_43;
        const P t9 = x9_10 - x44_43;
        const P x11_12 = io.in(11, 12);
        const P x42_41 = io.in(42, 41);
        const P t10 = x11_12 + x42_41;
        const P t11 = x11_12 - x42_41;
        const P x13_14 = io.in(13, 14);
        const P x40_39 = io.in(40, 39);
        const P t12 = x13_14 + x40_39;
        const P t13 = x13_14 - x40_39;
        const P x15_16 = io.in(15, 16);
        const P x38_37 = io.in(38, 37);
        const P t14 = x15_16 + x38_37;
        const P t15 = x15_16 - x38_37;
        const P x17_18 = io.in(17, 18);
        const P x36_35 = io.in(36, 35);
        const P t16 = x17_18 + x36_35;
        const P t17 = x17_18 - x36_35;
        const P x19_20 = io.in(19, 20);
        const P x34_33 = io.in(34, 33);
        const P t18 = x19_20 + x34_33;
        const P t19 = x19_20 - x34_33;
        const P x21_22 = io.in(21, 22);
        const P x32_31 = io.in(32, 31);
        const P t20 = x21_22 + x32_31;
        const P t21 = x21_22 - x32_31;
        const P x23_24 = io.in(23, 24);
        const P x30_29 = io.in(30, 29);
        const P t22 = x23_24 + x30_29;
        const P t23 = x23_24 - x30_29;
        const P x25_26 = io.in(25, 26);
        const P x28_27 = io.in(28, 27);
        const P t24 = x25_26 + x28_27;
        const P t25 = x25_26 - x28_27;
        const P t26 = shuffled<1, 2>(t4, t20);
        // real block of 3
        const P t27 = t10 + t26;
        const P t28 = t10 - t26;
        const P t29 = shuffled<1, 3>(t2, t12);
        const P t30 = t27 + t29;
        const P t31 = c[0] * t27;
        const P t32 = t29 - t31;
        const P t33 = shuffled<1, 3>(t8, t16);
        const P t34 = shuffled<0, 3>(t6, t0);
        // real block of 3
        const P t35 = t33 + t34;
        const P t36 = t33 - t34;
        const P t37 = shuffled<0, 3>(t24, t6);
        const P t38 = t35 + t37;
        const P t39 = c[0] * t35;
        const P t40 = t37 - t39;
        const P t41 = shuffled<1, 3>(t22, t20);
        const P t42 = shuffled<0, 2>(t8, t4);
        // real block of 3
        const P t43 = t41 + t42;
        const P t44 = t41 - t42;
        const P t45 = shuffled<0, 2>(t12, t18);
        const P t46 = t43 + t45;
        const P t47 = c[0] * t43;
        const P t48 = t45 - t47;
        const P t49 = shuffled<1, 2>(t14, t2);
        const P t50 = shuffled<0, 3>(t14, t24);
        // real block of 3
        const P t51 = t49 + t50;
        const P t52 = t49 - t50;
        const P t53 = shuffled<0, 3>(t16, t18);
        const P t54 = t51 + t53;
        const P t55 = c[0] * t51;
        const P t56 = t53 - t55;
        // real block of 2
        const P t57 = t30 + t46;
        const P t58 = t30 - t46;
        // real block of 2
        const P t59 = t38 + t54;
        const P t60 = t38 - t54;
        // real block of 2
        const P t61 = t57 + t59;
        const P t62 = t57 - t59;
        // complex block of 2
        const P t63 = t32 + t48;
        // real block of 3
        const P t64 = c[1] * t28;
        // real block of 3
        const P t65 = c[1] * t44;
        // complex block of 2
        const P t66 = t64 + t65;
        const P t67 = t32 - t48;
        const P t68 = t65 - t64;
        // complex block of 2
        const P t69 = t40 + t56;
        // real block of 3
        const P t70 = c[1] * t36;
        // real block of 3
        const P t71 = c[1] * t52;
        // complex block of 2
        const P t72 = t70 + t71;
        const P t73 = t40 - t56;
        const P t74 = t71 - t70;
        // complex block of 2
        const P t75 = t63 + t69;
        const P t76 = t66 + t72;
        const P t77 = t63 - t69;
        const P t78 = t72 - t66;
        // complex block of 2
        const P t79 = t67 - t74;
        const P t80 = t68 + t73;
        const P t81 = t67 + t74;
        const P t82 = t68 - t73;
        const P t83 = shuffled<0, 2>(t0, t22);
        // real block of 13, multiplier 2
        const P t84 = t83 + t61;
        const P t85 = c[4] * t61;
        const P t86 = t83 - t85;
        const P t87 = c[10] * t81;
        const P t88 = c[11] * t82;
        const P t89 = t87 + t88;
        const P t90 = c[10] * t82;
        const P t91 = c[11] * t81;
        const P t92 = t90 - t91;
        const P t93 = c[12] * t77;
        const P t94 = c[13] * t78;
        const P t95 = t93 - t94;
        const P t96 = c[12] * t78;
        const P t97 = c[13] * t77;
        const P t98 = t96 + t97;
        const P t99 = c[2] * t60;
        const P t100 = c[3] * t58;
        const P t101 = t99 - t100;
        const P t102 = c[3] * t60;
        const P t103 = c[2] * t58;
        const P t104 = t102 + t103;
        const P t105 = c[14] * t75;
        const P t106 = c[15] * t76;
        const P t107 = t105 - t106;
        const P t108 = c[14] * t76;
        const P t109 = c[15] * t75;
        const P t110 = t108 + t109;
        const P t111 = c[16] * t79;
        const P t112 = c[17] * t80;
        const P t113 = t111 + t112;
        const P t114 = c[17] * t79;
        const P t115 = c[16] * t80;
        const P t116 = t114 - t115;
        const P t117 = c[5] * t62;
        // spectrum block of 2
        const P t118 = t86 - t117;
        const P t119 = t86 + t117;
        // complex block of 2
        const P t120 = t98 - t110;
        const P t121 = t107 + t95;
        const P t122 = t110 + t98;
        const P t123 = t107 - t95;
        // spectrum block of 3, multiplier 2
        const P t124 = t121 + t118;
        const P t125 = c[0] * t121;
        const P t126 = t118 - t125;
        const P t127 = c[1] * t120;
        const P t128 = t126 - t127;
        const P t129 = t126 + t127;
        // spectrum block of 3, multiplier 2
        const P t130 = t123 + t119;
        const P t131 = c[0] * t123;
        const P t132 = t119 - t131;
        const P t133 = c[1] * t122;
        const P t134 = t132 + t133;
        const P t135 = t132 - t133;
        // complex block of 2
        const P t136 = t113 - t89;
        const P t137 = t92 + t116;
        const P t138 = t89 + t113;
        const P t139 = t92 - t116;
        // mirrored skew block of 6
        const P t140 = c[1] * t139;
        const P t141 = c[0] * t138;
        const P t142 = t140 + t141;
        // spectrum block of 3, multiplier 2
        const P t143 = t137 - t104;
        const P t144 = c[0] * t137;
        const P t145 = t104 + t144;
        const P t146 = c[1] * t136;
        const P t147 = t146 - t145;
        const P t148 = t145 + t146;
        // spectrum block of 3, multiplier 2
        const P t149 = t142 + t101;
        const P t150 = c[0] * t142;
        const P t151 = t101 - t150;
        const P t152 = c[18] * t139;
        const P t153 = c[19] * t138;
        const P t154 = t152 - t153;
        const P t155 = t151 + t154;
        const P t156 = t151 - t154;
        const V t157 = part<0>(t84);
        const V t158 = part<1>(t84);
        // real block of 2
        const V t159 = t157 + t158;
        const V t160 = t157 - t158;
        const P t161 = shuffled<0, 2>(t124, t143);
        const P t162 = shuffled<1, 3>(t124, t143);
        // complex block of 2
        const P t163 = t161 + t162;
        const P t164 = t161 - t162;
        const P t165 = shuffled<0, 2>(t135, t156);
        const P t166 = shuffled<1, 3>(t135, t156);
        // complex block of 2
        const P t167 = t165 + t166;
        const P t168 = shuffled<0, 3>(t165, t166);
        const P t169 = shuffled<0, 3>(t166, t165);
        const P t170 = t168 - t169;
        const P t171 = shuffled<0, 2>(t129, t147);
        const P t172 = shuffled<1, 3>(t129, t147);
        // complex block of 2
        const P t173 = t171 + t172;
        const P t174 = t171 - t172;
        const P t175 = shuffled<0, 2>(t128, t148);
        const P t176 = shuffled<1, 3>(t128, t148);
        // complex block of 2
        const P t177 = t175 + t176;
        const P t178 = t175 - t176;
        const P t179 = shuffled<0, 2>(t130, t155);
        const P t180 = shuffled<1, 3>(t130, t155);
        // complex block of 2
        const P t181 = t179 + t180;
        const P t182 = shuffled<0, 3>(t179, t180);
        const P t183 = shuffled<0, 3>(t180, t179);
        const P t184 = t182 - t183;
        const P t185 = shuffled<0, 2>(t134, t149);
        const P t186 = shuffled<1, 3>(t134, t149);
        // complex block of 2
        const P t187 = t185 + t186;
        const P t188 = shuffled<0, 3>(t185, t186);
        const P t189 = shuffled<0, 3>(t186, t185);
        const P t190 = t188 - t189;
        const P t191 = shuffled<1, 3>(t5, t21);
        // real block of 3
        const P t192 = t191 + t11;
        const P t193 = shuffled<0, 3>(t191, t11);
        const P t194 = shuffled<0, 3>(t11, t191);
        const P t195 = t193 - t194;
        const P t196 = shuffled<1, 3>(t3, t7);
        const P t197 = t192 + t196;
        const P t198 = c[0] * t192;
        const P t199 = t198 - t196;
        const P t200 = shuffled<1, 3>(t9, t19);
        const P t201 = shuffled<0, 3>(t7, t13);
        // real block of 3
        const P t202 = t200 - t201;
        const P t203 = t200 + t201;
        const P t204 = shuffled<0, 2>(t25, t3);
        const P t205 = flipped<1, 0>(t204);
        const P t206 = t202 + t205;
        const P t207 = P(c[0], -c[0]) * t202;
        const P t208 = t204 + t207;
        const P t209 = shuffled<1, 2>(t23, t5);
        const P t210 = shuffled<0, 3>(t9, t17);
        const P t211 = flipped<1, 0>(t210);
        // real block of 3
        const P t212 = t209 + t211;
        const P t213 = flipped<0, 1>(t209);
        const P t214 = t210 + t213;
        const P t215 = shuffled<0, 3>(t13, t25);
        const P t216 = flipped<0, 1>(t212);
        const P t217 = t215 + t216;
        const P t218 = P(-c[0], c[0]) * t212;
        const P t219 = t218 + t215;
        const P t220 = shuffled<1, 2>(t15, t21);
        const P t221 = shuffled<0, 2>(t15, t23);
        // real block of 3
        const P t222 = t220 + t221;
        const P t223 = shuffled<0, 3>(t220, t221);
        const P t224 = shuffled<0, 3>(t221, t220);
        const P t225 = t223 - t224;
        const P t226 = shuffled<0, 2>(t222, t19);
        const P t227 = shuffled<0, 3>(t17, t222);
        const P t228 = t226 - t227;
        const P t229 = c[0] * t222;
        const P t230 = shuffled<0, 3>(t227, t226);
        const P t231 = t229 + t230;
        // real block of 2
        const P t232 = t217 - t197;
        const P t233 = t197 + t217;
        // real block of 2
        const P t234 = t206 + t228;
        const P t235 = t206 - t228;
        // real block of 2
        const P t236 = t232 + t234;
        const P t237 = t232 - t234;
        // complex block of 2
        const P t238 = t199 + t219;
        // real block of 3
        const P t239 = c[1] * t195;
        // real block of 3
        const P t240 = c[1] * t214;
        // complex block of 2
        const P t241 = t239 + t240;
        const P t242 = t199 - t219;
        const P t243 = t240 - t239;
        // complex block of 2
        const P t244 = t208 + t231;
        // real block of 3
        const P t245 = c[1] * t203;
        // real block of 3
        const P t246 = c[1] * t225;
        // complex block of 2
        const P t247 = t245 + t246;
        const P t248 = shuffled<0, 3>(t231, t208);
        const P t249 = shuffled<0, 3>(t208, t231);
        const P t250 = t248 - t249;
        const P t251 = t246 - t245;
        const P t252 = flipped<1, 0>(t244);
        // complex block of 2
        const P t253 = t238 + t252;
        const P t254 = t241 + t247;
        const P t255 = t238 - t252;
        const P t256 = t247 - t241;
        // complex block of 2
        const P t257 = t242 - t251;
        const P t258 = t243 + t250;
        const P t259 = t242 + t251;
        const P t260 = t243 - t250;
        // real block of 13
        const P t261 = t1 + t236;
        const P t262 = c[4] * t236;
        const P t263 = t1 - t262;
        const P t264 = c[20] * t259;
        const P t265 = c[21] * t260;
        const P t266 = t264 + t265;
        const P t267 = c[20] * t260;
        const P t268 = c[21] * t259;
        const P t269 = t267 - t268;
        const P t270 = c[22] * t255;
        const P t271 = c[23] * t256;
        const P t272 = t270 + t271;
        const P t273 = c[23] * t255;
        const P t274 = c[22] * t256;
        const P t275 = t273 - t274;
        const P t276 = c[3] * t235;
        const P t277 = c[2] * t233;
        const P t278 = t276 - t277;
        const P t279 = c[2] * t235;
        const P t280 = c[3] * t233;
        const P t281 = t279 + t280;
        const P t282 = c[24] * t253;
        const P t283 = c[25] * t254;
        const P t284 = t282 + t283;
        const P t285 = c[25] * t253;
        const P t286 = c[24] * t254;
        const P t287 = t285 - t286;
        const P t288 = c[26] * t258;
        const P t289 = c[27] * t257;
        const P t290 = t288 - t289;
        const P t291 = c[27] * t258;
        const P t292 = c[26] * t257;
        const P t293 = t291 + t292;
        const P t294 = c[5] * t237;
        // spectrum block of 2
        const P t295 = t263 + t294;
        const P t296 = t263 - t294;
        // complex block of 2
        const P t297 = t287 - t275;
        const P t298 = t284 + t272;
        const P t299 = t287 + t275;
        const P t300 = t284 - t272;
        // spectrum block of 3, multiplier 2
        const P t301 = t298 + t295;
        const P t302 = c[0] * t298;
        const P t303 = t295 - t302;
        const P t304 = c[1] * t297;
        const P t305 = t303 - t304;
        const P t306 = t303 + t304;
        // spectrum block of 3, multiplier 2
        const P t307 = t300 + t296;
        const P t308 = c[0] * t300;
        const P t309 = t296 - t308;
        const P t310 = c[1] * t299;
        const P t311 = t309 - t310;
        const P t312 = t309 + t310;
        // complex block of 2
        const P t313 = t290 - t266;
        const P t314 = t269 + t293;
        const P t315 = t266 + t290;
        const P t316 = t269 - t293;
        // mirrored skew block of 6
        const P t317 = c[1] * t316;
        const P t318 = c[0] * t315;
        const P t319 = t317 + t318;
        // spectrum block of 3, multiplier 2
        const P t320 = t314 + t281;
        const P t321 = c[0] * t314;
        const P t322 = t281 - t321;
        const P t323 = c[1] * t313;
        const P t324 = t322 + t323;
        const P t325 = t322 - t323;
        // spectrum block of 3, multiplier 2
        const P t326 = t319 + t278;
        const P t327 = c[0] * t319;
        const P t328 = t278 - t327;
        const P t329 = c[18] * t316;
        const P t330 = c[19] * t315;
        const P t331 = t329 - t330;
        const P t332 = t328 + t331;
        const P t333 = t328 - t331;
        const P t334 = shuffled<1, 3>(t311, t326);
        // skew block of 26
        const P t335 = c[36] * t334;
        const P t336 = shuffled<1, 0>(t334);
        const P t337 = P(c[37], -c[37]) * t336;
        const P t338 = t335 + t337;
        const P t339 = shuffled<0, 2>(t311, t326);
        // complex block of 2
        const P t340 = t339 + t338;
        const P t341 = t339 - t338;
        const P t342 = shuffled<1, 3>(t307, t332);
        // skew block of 26
        const P t343 = c[38] * t342;
        const P t344 = shuffled<1, 0>(t342);
        const P t345 = P(c[39], -c[39]) * t344;
        const P t346 = t343 + t345;
        const P t347 = shuffled<0, 2>(t307, t332);
        // complex block of 2
        const P t348 = t347 + t346;
        const P t349 = t347 - t346;
        const P t350 = shuffled<1, 3>(t305, t325);
        // skew block of 26
        const P t351 = c[40] * t350;
        const P t352 = shuffled<1, 0>(t350);
        const P t353 = P(c[41], -c[41]) * t352;
        const P t354 = t351 + t353;
        const P t355 = shuffled<0, 2>(t305, t325);
        // complex block of 2
        const P t356 = t355 + t354;
        const P t357 = t355 - t354;
        const P t358 = shuffled<1, 3>(t306, t324);
        // skew block of 26
        const P t359 = c[42] * t358;
        const P t360 = shuffled<1, 0>(t358);
        const P t361 = P(-c[43], c[43]) * t360;
        const P t362 = t359 + t361;
        const P t363 = shuffled<0, 2>(t306, t324);
        // complex block of 2
        const P t364 = t363 + t362;
        const P t365 = shuffled<0, 3>(t363, t362);
        const P t366 = shuffled<0, 3>(t362, t363);
        const P t367 = t365 - t366;
        const P t368 = shuffled<1, 3>(t312, t333);
        // skew block of 26
        const P t369 = c[44] * t368;
        const P t370 = shuffled<1, 0>(t368);
        const P t371 = P(c[45], -c[45]) * t370;
        const P t372 = t369 + t371;
        const P t373 = shuffled<0, 2>(t312, t333);
        // complex block of 2
        const P t374 = t373 + t372;
        const P t375 = t373 - t372;
        const P t376 = shuffled<1, 3>(t301, t320);
        // skew block of 26
        const P t377 = c[46] * t376;
        const P t378 = shuffled<1, 0>(t376);
        const P t379 = P(-c[47], c[47]) * t378;
        const P t380 = t377 + t379;
        const P t381 = shuffled<0, 2>(t301, t320);
        // complex block of 2
        const P t382 = t381 + t380;
        const P t383 = shuffled<0, 3>(t381, t380);
        const P t384 = shuffled<0, 3>(t380, t381);
        const P t385 = t383 - t384;
        const V x0 = io.in(0);
        // spectrum block of 53
        const V t386 = c[98] * t159;
        const V t387 = x0 - t386;
        const P t388 = P(-c[48], c[48]) * t340;
        const P t389 = shuffled<1, 0>(t340);
        const P t390 = c[49] * t389;
        const P t391 = t388 + t390;
        const P t392 = c[50] * t190;
        const P t393 = shuffled<1, 0>(t190);
        const P t394 = P(-c[51], c[51]) * t393;
        const P t395 = t392 + t394;
        const P t396 = P(-c[52], c[52]) * t348;
        const P t397 = shuffled<1, 0>(t348);
        const P t398 = c[53] * t397;
        const P t399 = t396 + t398;
        const P t400 = c[54] * t163;
        const P t401 = shuffled<1, 0>(t163);
        const P t402 = P(-c[55], c[55]) * t401;
        const P t403 = t400 + t402;
        const P t404 = c[56] * t356;
        const P t405 = shuffled<1, 0>(t356);
        const P t406 = P(c[57], -c[57]) * t405;
        const P t407 = t404 + t406;
        const P t408 = shuffled<1, 0>(t184);
        const P t409 = c[58] * t408;
        const P t410 = P(c[59], -c[59]) * t184;
        const P t411 = t409 + t410;
        const P t412 = c[60] * t364;
        const P t413 = shuffled<1, 0>(t364);
        const P t414 = P(-c[61], c[61]) * t413;
        const P t415 = t412 + t414;
        const P t416 = shuffled<1, 0>(t167);
        const P t417 = c[62] * t416;
        const P t418 = P(c[63], -c[63]) * t167;
        const P t419 = t417 + t418;
        const P t420 = c[64] * t374;
        const P t421 = shuffled<1, 0>(t374);
        const P t422 = P(c[65], -c[65]) * t421;
        const P t423 = t420 + t422;
        const P t424 = P(-c[66], c[66]) * t178;
        const P t425 = shuffled<1, 0>(t178);
        const P t426 = c[67] * t425;
        const P t427 = t424 + t426;
        const P t428 = c[68] * t382;
        const P t429 = shuffled<1, 0>(t382);
        const P t430 = P(c[69], -c[69]) * t429;
        const P t431 = t428 + t430;
        const P t432 = c[70] * t173;
        const P t433 = shuffled<1, 0>(t173);
        const P t434 = P(-c[71], c[71]) * t433;
        const P t435 = t432 + t434;
        const P t436 = shuffled<1, 0>(t261);
        const P t437 = c[72] * t436;
        const P t438 = P(c[73], -c[73]) * t261;
        const P t439 = t437 + t438;
        const P t440 = c[74] * t174;
        const P t441 = shuffled<1, 0>(t174);
        const P t442 = P(-c[75], c[75]) * t441;
        const P t443 = t440 + t442;
        const P t444 = P(-c[76], c[76]) * t385;
        const P t445 = shuffled<1, 0>(t385);
        const P t446 = c[77] * t445;
        const P t447 = t444 + t446;
        const P t448 = shuffled<1, 0>(t177);
        const P t449 = c[78] * t448;
        const P t450 = P(c[79], -c[79]) * t177;
        const P t451 = t449 + t450;
        const P t452 = c[80] * t375;
        const P t453 = shuffled<1, 0>(t375);
        const P t454 = P(c[81], -c[81]) * t453;
        const P t455 = t452 + t454;
        const P t456 = shuffled<1, 0>(t170);
        const P t457 = c[82] * t456;
        const P t458 = P(c[83], -c[83]) * t170;
        const P t459 = t457 + t458;
        const P t460 = c[84] * t367;
        const P t461 = shuffled<1, 0>(t367);
        const P t462 = P(-c[85], c[85]) * t461;
        const P t463 = t460 + t462;
        const P t464 = shuffled<1, 0>(t181);
        const P t465 = c[86] * t464;
        const P t466 = P(c[87], -c[87]) * t181;
        const P t467 = t465 + t466;
        const P t468 = P(-c[88], c[88]) * t357;
        const P t469 = shuffled<1, 0>(t357);
        const P t470 = c[89] * t469;
        const P t471 = t468 + t470;
        const P t472 = shuffled<1, 0>(t164);
        const P t473 = c[90] * t472;
        const P t474 = P(c[91], -c[91]) * t164;
        const P t475 = t473 + t474;
        const P t476 = c[92] * t349;
        const P t477 = shuffled<1, 0>(t349);
        const P t478 = P(-c[93], c[93]) * t477;
        const P t479 = t476 + t478;
        const P t480 = c[94] * t187;
        const P t481 = shuffled<1, 0>(t187);
        const P t482 = P(-c[95], c[95]) * t481;
        const P t483 = t480 + t482;
        const P t484 = P(-c[96], c[96]) * t341;
        const P t485 = shuffled<1, 0>(t341);
        const P t486 = c[97] * t485;
        const P t487 = t484 + t486;
        const P t488 = flipped<1, 0>(t455);
        // real block of 2
        const P t489 = t488 + t423;
        const P t490 = flipped<0, 1>(t423);
        const P t491 = t455 + t490;
        // real block of 2
        const P t492 = t415 + t463;
        const P t493 = t415 - t463;
        // real block of 2
        const P t494 = t489 + t492;
        const P t495 = t489 - t492;
        const P t496 = flipped<0, 1>(t391);
        // real block of 2
        const P t497 = t487 + t496;
        const P t498 = t487 - t496;
        // real block of 2
        const P t499 = t407 + t471;
        const P t500 = t407 - t471;
        // real block of 2
        const P t501 = t497 + t499;
        const P t502 = t497 - t499;
        // real block of 2
        const P t503 = t399 + t479;
        const P t504 = t399 - t479;
        const P t505 = flipped<1, 0>(t431);
        // real block of 2
        const P t506 = t505 + t447;
        const P t507 = t447 - t505;
        const P t508 = flipped<0, 1>(t506);
        // real block of 2
        const P t509 = t503 + t508;
        const P t510 = t503 - t508;
        // real block of 3
        const P t511 = t501 + t509;
        const P t512 = t501 - t509;
        const P t513 = t511 + t494;
        const P t514 = c[0] * t511;
        const P t515 = t494 - t514;
        // complex block of 3
        const P t516 = t498 + t504;
        const P t517 = flipped<1, 0>(t507);
        const P t518 = t500 + t517;
        const P t519 = t498 - t504;
        const P t520 = t500 - t517;
        const P t521 = flipped<1, 0>(t491);
        const P t522 = t516 + t521;
        const P t523 = t518 + t493;
        const P t524 = P(c[0], -c[0]) * t516;
        const P t525 = t491 + t524;
        const P t526 = c[0] * t518;
        const P t527 = t493 - t526;
        const P t528 = flipped<1, 0>(t525);
        const P t529 = c[1] * t520;
        const P t530 = t528 + t529;
        const P t531 = c[1] * t519;
        const P t532 = t527 - t531;
        const P t533 = flipped<0, 1>(t529);
        const P t534 = t525 + t533;
        const P t535 = t527 + t531;
        // real block of 3
        const P t536 = t502 + t510;
        const P t537 = t502 - t510;
        const P t538 = t536 + t495;
        const P t539 = c[0] * t536;
        const P t540 = t495 - t539;
        // complex block of 13, multiplier 4
        const P t541 = t439 + t513;
        const P t542 = c[4] * t513;
        const P t543 = t439 - t542;
        const P t544 = shuffled<1, 0>(t534);
        const P t545 = P(-c[6], c[6]) * t544;
        const P t546 = shuffled<1, 0>(t535);
        const P t547 = c[7] * t546;
        const P t548 = t545 + t547;
        const P t549 = c[7] * t544;
        const P t550 = P(c[6], -c[6]) * t546;
        const P t551 = t549 + t550;
        const P t552 = c[28] * t540;
        // real block of 3
        const P t553 = c[1] * t537;
        // complex block of 13, multiplier 4
        const P t554 = c[29] * t553;
        const P t555 = t552 + t554;
        const P t556 = shuffled<1, 0>(t523);
        const P t557 = P(-c[2], c[2]) * t556;
        const P t558 = shuffled<1, 0>(t522);
        const P t559 = P(c[3], -c[3]) * t558;
        const P t560 = t557 + t559;
        const P t561 = c[3] * t556;
        const P t562 = c[2] * t558;
        const P t563 = t561 + t562;
        const P t564 = c[30] * t515;
        // real block of 3
        const P t565 = c[1] * t512;
        // complex block of 13, multiplier 4
        const P t566 = c[31] * t565;
        const P t567 = t564 + t566;
        const P t568 = shuffled<1, 0>(t530);
        const P t569 = P(-c[8], c[8]) * t568;
        const P t570 = shuffled<1, 0>(t532);
        const P t571 = P(c[9], -c[9]) * t570;
        const P t572 = t569 + t571;
        const P t573 = c[8] * t570;
        const P t574 = c[9] * t568;
        const P t575 = t573 + t574;
        // spectrum block of 3
        const P t576 = t543 - t567;
        const P t577 = c[0] * t567;
        const P t578 = t577 + t543;
        const P t579 = c[32] * t565;
        const P t580 = c[33] * t515;
        const P t581 = t579 - t580;
        const P t582 = t578 - t581;
        const P t583 = t578 + t581;
        const P t584 = flipped<0, 1>(t551);
        // complex block of 3
        const P t585 = t575 + t584;
        const P t586 = flipped<0, 1>(t548);
        const P t587 = t572 + t586;
        const P t588 = flipped<1, 0>(t575);
        const P t589 = t588 + t551;
        const P t590 = t572 - t586;
        const P t591 = shuffled<0, 3>(t563, t585);
        const P t592 = shuffled<0, 3>(t585, t563);
        const P t593 = t591 - t592;
        const P t594 = t587 + t560;
        const P t595 = c[0] * t585;
        const P t596 = t563 + t595;
        const P t597 = c[0] * t587;
        const P t598 = t560 - t597;
        const P t599 = c[1] * t590;
        const P t600 = flipped<0, 1>(t596);
        const P t601 = t599 + t600;
        const P t602 = c[1] * t589;
        const P t603 = t598 - t602;
        const P t604 = flipped<1, 0>(t599);
        const P t605 = t596 + t604;
        const P t606 = t598 + t602;
        // complex block of 13, multiplier 4
        const P t607 = c[5] * t538;
        // spectrum block of 3
        const P t608 = t555 + t607;
        const P t609 = c[0] * t555;
        const P t610 = t607 - t609;
        const P t611 = c[34] * t553;
        const P t612 = c[35] * t540;
        const P t613 = t611 - t612;
        const P t614 = t610 + t613;
        const P t615 = t610 - t613;
        // spectrum block of 2
        const P t616 = t576 + t608;
        const P t617 = t576 - t608;
        // spectrum block of 2
        const P t618 = t616 + t594;
        const P t619 = t616 - t594;
        // spectrum block of 2
        const P t620 = t617 + t593;
        const P t621 = t617 - t593;
        // spectrum block of 2
        const P t622 = t582 + t614;
        const P t623 = t582 - t614;
        // spectrum block of 2
        const P t624 = t622 + t603;
        const P t625 = t622 - t603;
        // spectrum block of 2
        const P t626 = t623 + t601;
        const P t627 = t623 - t601;
        // spectrum block of 2
        const P t628 = t583 + t615;
        const P t629 = t583 - t615;
        // spectrum block of 2
        const P t630 = t628 + t606;
        const P t631 = t628 - t606;
        const P t632 = flipped<0, 1>(t605);
        // spectrum block of 2
        const P t633 = t629 + t632;
        const P t634 = t629 - t632;
        const P t635 = shuffled<0, 2>(t435, t427);
        const P t636 = shuffled<0, 2>(t451, t443);
        const P t637 = flipped<1, 0>(t636);
        // real block of 3, multiplier 2
        const P t638 = t635 + t637;
        const P t639 = t635 - t637;
        const P t640 = shuffled<0, 2>(t403, t475);
        const P t641 = t638 + t640;
        const P t642 = c[0] * t638;
        const P t643 = t640 - t642;
        const P t644 = shuffled<0, 2>(t483, t395);
        const P t645 = shuffled<0, 2>(t419, t459);
        // real block of 3, multiplier 2
        const P t646 = t644 + t645;
        const P t647 = t644 - t645;
        const P t648 = shuffled<0, 2>(t467, t411);
        const P t649 = t646 + t648;
        const P t650 = c[0] * t646;
        const P t651 = t648 - t650;
        // real block of 2
        const P t652 = t641 + t649;
        const P t653 = t641 - t649;
        // complex block of 2
        const P t654 = t643 + t651;
        // real block of 3, multiplier 2
        const P t655 = P(-c[1], c[1]) * t639;
        // real block of 3, multiplier 2
        const P t656 = c[1] * t647;
        // complex block of 2
        const P t657 = t655 + t656;
        const P t658 = t643 - t651;
        const P t659 = flipped<1, 0>(t655);
        const P t660 = flipped<0, 1>(t656);
        const P t661 = t659 + t660;
        const P t662 = shuffled<1, 3>(t419, t459);
        // skew block of 6
        const P t663 = c[1] * t662;
        const P t664 = shuffled<1, 3>(t435, t443);
        const P t665 = P(-c[0], c[0]) * t664;
        const P t666 = t663 + t665;
        const P t667 = c[0] * t662;
        const P t668 = P(c[1], -c[1]) * t664;
        const P t669 = t667 + t668;
        const P t670 = shuffled<1, 3>(t451, t427);
        const P t671 = c[0] * t670;
        const P t672 = shuffled<1, 3>(t483, t395);
        const P t673 = c[1] * t672;
        const P t674 = t671 + t673;
        const P t675 = P(-c[1], c[1]) * t670;
        const P t676 = P(c[0], -c[0]) * t672;
        const P t677 = t675 + t676;
        // complex block of 3
        const P t678 = t666 + t674;
        const P t679 = flipped<1, 0>(t669);
        const P t680 = t679 + t677;
        const P t681 = shuffled<0, 3>(t666, t674);
        const P t682 = shuffled<0, 3>(t674, t666);
        const P t683 = t681 - t682;
        const P t684 = flipped<0, 1>(t677);
        const P t685 = t669 + t684;
        const P t686 = shuffled<1, 3>(t403, t475);
        const P t687 = t678 + t686;
        const P t688 = shuffled<1, 3>(t467, t411);
        const P t689 = flipped<0, 1>(t688);
        const P t690 = t680 + t689;
        const P t691 = P(-c[0], c[0]) * t678;
        const P t692 = flipped<0, 1>(t686);
        const P t693 = t691 + t692;
        const P t694 = P(-c[0], c[0]) * t680;
        const P t695 = t688 + t694;
        const P t696 = P(-c[1], c[1]) * t685;
        const P t697 = t693 + t696;
        const P t698 = P(-c[1], c[1]) * t683;
        const P t699 = t695 + t698;
        const P t700 = t693 - t696;
        const P t701 = shuffled<0, 3>(t695, t698);
        const P t702 = shuffled<0, 3>(t698, t695);
        const P t703 = t701 - t702;
        // spectrum block of 53
        const V t704 = c[99] * t160;
        const P t705 = joined(t387, t704);
        // spectrum block of 13, multiplier 4
        const P t706 = c[4] * t652;
        const P t707 = t705 - t706;
        const P t708 = c[6] * t687;
        const P t709 = P(c[7], -c[7]) * t690;
        const P t710 = t708 + t709;
        const P t711 = P(-c[6], c[6]) * t690;
        const P t712 = c[7] * t687;
        const P t713 = t711 + t712;
        const P t714 = c[28] * t658;
        const P t715 = P(c[29], -c[29]) * t661;
        const P t716 = t714 + t715;
        const P t717 = c[3] * t700;
        const P t718 = c[2] * t703;
        const P t719 = t717 + t718;
        const P t720 = c[2] * t700;
        const P t721 = c[3] * t703;
        const P t722 = t720 - t721;
        const P t723 = c[31] * t657;
        const P t724 = c[30] * t654;
        const P t725 = t723 - t724;
        const P t726 = c[9] * t699;
        const P t727 = P(c[8], -c[8]) * t697;
        const P t728 = t726 + t727;
        const P t729 = P(-c[8], c[8]) * t699;
        const P t730 = c[9] * t697;
        const P t731 = t729 + t730;
        // spectrum block of 3
        const P t732 = t725 + t707;
        const P t733 = c[0] * t725;
        const P t734 = t707 - t733;
        const P t735 = c[32] * t657;
        const P t736 = c[33] * t654;
        const P t737 = t735 + t736;
        const P t738 = t734 + t737;
        const P t739 = t734 - t737;
        const P t740 = flipped<0, 1>(t731);
        // complex block of 3
        const P t741 = t713 + t740;
        const P t742 = t728 + t710;
        const P t743 = t713 - t740;
        const P t744 = shuffled<0, 3>(t710, t728);
        const P t745 = shuffled<0, 3>(t728, t710);
        const P t746 = t744 - t745;
        const P t747 = flipped<1, 0>(t741);
        const P t748 = t747 + t722;
        const P t749 = flipped<1, 0>(t742);
        const P t750 = t749 + t719;
        const P t751 = P(c[0], -c[0]) * t741;
        const P t752 = t722 + t751;
        const P t753 = P(c[0], -c[0]) * t742;
        const P t754 = t719 + t753;
        const P t755 = c[1] * t746;
        const P t756 = t752 + t755;
        const P t757 = P(-c[1], c[1]) * t743;
        const P t758 = t754 + t757;
        const P t759 = t752 - t755;
        const P t760 = t754 - t757;
        // spectrum block of 13, multiplier 4
        const P t761 = c[5] * t653;
        // spectrum block of 3
        const P t762 = t716 + t761;
        const P t763 = c[0] * t716;
        const P t764 = t761 - t763;
        const P t765 = c[34] * t661;
        const P t766 = P(-c[35], c[35]) * t658;
        const P t767 = t765 + t766;
        const P t768 = flipped<0, 1>(t767);
        const P t769 = t764 + t768;
        const P t770 = t764 - t768;
        // spectrum block of 2
        const P t771 = t732 + t762;
        const P t772 = t732 - t762;
        // spectrum block of 2
        const P t773 = t771 + t750;
        const P t774 = t771 - t750;
        // spectrum block of 2
        const P t775 = t772 + t748;
        const P t776 = t772 - t748;
        // spectrum block of 2
        const P t777 = t738 + t769;
        const P t778 = t738 - t769;
        // spectrum block of 2
        const P t779 = t777 + t758;
        const P t780 = t777 - t758;
        // spectrum block of 2
        const P t781 = t778 + t756;
        const P t782 = t778 - t756;
        // spectrum block of 2
        const P t783 = t739 + t770;
        const P t784 = t739 - t770;
        // spectrum block of 2
        const P t785 = t783 + t760;
        const P t786 = t783 - t760;
        // spectrum block of 2
        const P t787 = t784 + t759;
        const P t788 = t784 - t759;
        // spectrum block of 13, multiplier 4
        const P t789 = t705 + t652;
        const P t790 = shuffled<0, 2>(t789, t773);
        const P t791 = shuffled<1, 3>(t789, t773);
        // spectrum block of 2
        const P t792 = t790 + t791;
        const P t793 = t790 - t791;
        const P t794 = shuffled<0, 2>(t541, t618);
        // spectrum block of 2
        const P t795 = t792 + t794;
        io.out(52, 43, t795);
        const P t796 = t792 - t794;
        io.out(1, 10, t796);
        const P t797 = shuffled<1, 3>(t541, t618);
        // spectrum block of 2
        const P t798 = t793 - t797;
        io.out(30, 35, t798);
        const P t799 = t793 + t797;
        io.out(23, 18, t799);
        const P t800 = shuffled<0, 2>(t787, t785);
        const P t801 = shuffled<1, 3>(t787, t785);
        // spectrum block of 2
        const P t802 = t800 + t801;
        const P t803 = t800 - t801;
        const P t804 = shuffled<0, 2>(t633, t630);
        // spectrum block of 2
        const P t805 = t802 + t804;
        io.out(6, 7, t805);
        const P t806 = t802 - t804;
        io.out(47, 46, t806);
        const P t807 = shuffled<1, 3>(t633, t630);
        // spectrum block of 2
        const P t808 = t803 - t807;
        io.out(32, 2, t808);
        const P t809 = t803 + t807;
        io.out(21, 51, t809);
        const P t810 = shuffled<0, 2>(t780, t775);
        const P t811 = shuffled<1, 3>(t780, t775);
        // spectrum block of 2
        const P t812 = t810 + t811;
        const P t813 = t810 - t811;
        const P t814 = shuffled<0, 2>(t625, t620);
        // spectrum block of 2
        const P t815 = t812 + t814;
        io.out(17, 11, t815);
        const P t816 = t812 - t814;
        io.out(36, 42, t816);
        const P t817 = shuffled<1, 3>(t625, t620);
        // spectrum block of 2
        const P t818 = t813 - t817;
        io.out(20, 41, t818);
        const P t819 = t813 + t817;
        io.out(33, 12, t819);
        const P t820 = shuffled<0, 2>(t781, t782);
        const P t821 = shuffled<1, 3>(t781, t782);
        // spectrum block of 2
        const P t822 = t820 + t821;
        const P t823 = t820 - t821;
        const P t824 = shuffled<0, 2>(t626, t627);
        // spectrum block of 2
        const P t825 = t822 + t824;
        io.out(4, 40, t825);
        const P t826 = t822 - t824;
        io.out(49, 13, t826);
        const P t827 = shuffled<1, 3>(t626, t627);
        // spectrum block of 2
        const P t828 = t823 - t827;
        io.out(39, 19, t828);
        const P t829 = t823 + t827;
        io.out(14, 34, t829);
        const P t830 = shuffled<0, 2>(t776, t779);
        const P t831 = shuffled<1, 3>(t776, t779);
        // spectrum block of 2
        const P t832 = t830 + t831;
        const P t833 = t830 - t831;
        const P t834 = shuffled<0, 2>(t621, t624);
        // spectrum block of 2
        const P t835 = t832 + t834;
        io.out(29, 25, t835);
        const P t836 = t832 - t834;
        io.out(24, 28, t836);
        const P t837 = shuffled<1, 3>(t621, t624);
        // spectrum block of 2
        const P t838 = t833 - t837;
        io.out(31, 45, t838);
        const P t839 = t833 + t837;
        io.out(22, 8, t839);
        const P t840 = shuffled<0, 2>(t786, t788);
        const P t841 = shuffled<1, 3>(t786, t788);
        // spectrum block of 2
        const P t842 = t840 + t841;
        const P t843 = t840 - t841;
        const P t844 = shuffled<0, 2>(t631, t634);
        // spectrum block of 2
        const P t845 = t842 + t844;
        io.out(38, 9, t845);
        const P t846 = t842 - t844;
        io.out(15, 44, t846);
        const P t847 = shuffled<1, 3>(t631, t634);
        // spectrum block of 2
        const P t848 = t843 - t847;
        io.out(26, 48, t848);
        const P t849 = t843 + t847;
        io.out(27, 5, t849);
        const V t850 = part<0>(t774);
        const V t851 = part<1>(t774);
        // spectrum block of 2
        const V t852 = t850 + t851;
        const V t853 = t850 - t851;
        const P t854 = joined(t852, t853);
        const P t855 = flipped<0, 1>(t619);
        // spectrum block of 2
        const P t856 = t854 + t855;
        io.out(37, 3, t856);
        const P t857 = t854 - t855;
        io.out(16, 50, t857);
        // spectrum block of 53
        const V t858 = x0 + t159;
        io.out(0, t858);
    }
};

}  // namespace zulg
