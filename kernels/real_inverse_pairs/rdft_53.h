// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 53.
// Inverse DFT to 53 real points, Rader 13, 4; two lanes to a register.
// 249 sums, 174 differences, 252 products of registers, which do the 1395 steps of the graph, those with
// `scale` included; 151 shuffles, 32 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<53> {
    static constexpr int steps = 1395;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        2.0,  // c[2]: 2
        0.5751407294740031,  // c[3]: -Q[3] of 13
        0.1741386011521359,  // c[4]: -P[3] of 13
        0.08333333333333333,  // c[5]: 1/12
        0.3004626062886658,  // c[6]: -beta of 13
        0.6007253775544544,  // c[7]: -Q[1] of 13
        0.015496188988565054,  // c[8]: P[1] of 13
        0.5084294662830964,  // c[9]: -Q[5] of 13
        0.3203288761978803,  // c[10]: P[5] of 13
        0.2869425954512852,  // c[11]: P[1] of 13
        0.5279915321544383,  // c[12]: -Q[1] of 13
        0.5242266395265821,  // c[13]: P[2] of 13
        0.29376443202296976,  // c[14]: -Q[2] of 13
        0.42763404682657274,  // c[15]: P[4] of 13
        0.42218506973345193,  // c[16]: -Q[4] of 13
        0.5316276774946329,  // c[17]: P[5] of 13
        0.280148395734785,  // c[18]: Q[5] of 13
        0.4330127018922193,  // c[19]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[20]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.5124953431658732,  // c[21]: P[1] of 13
        0.31378278210316923,  // c[22]: -Q[1] of 13
        0.5165207806234897,  // c[23]: P[2] of 13
        0.3071113711590828,  // c[24]: Q[2] of 13
        0.15180597207438773,  // c[25]: P[4] of 13
        0.5814344829416822,  // c[26]: Q[4] of 13
        0.02319821121153658,  // c[27]: Q[5] of 13
        0.6004772719326653,  // c[28]: -P[5] of 13
        0.007705858903092426,  // c[29]: P[2] of 13
        0.6008758031820526,  // c[30]: -Q[2] of 13
        0.5794400189009605,  // c[31]: -P[4] of 13
        0.15924941320823024,  // c[32]: -Q[4] of 13
        0.5018097763375671,  // c[33]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[34]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[35]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[36]: sin 2 pi 1/3 times -Q[2] of 13
        0.992708874098054,  // c[37]: cos 2 pi 1/52
        0.12053668025532305,  // c[38]: sin 2 pi 1/52
        0.9350162426854148,  // c[39]: cos 2 pi 3/52
        0.3546048870425356,  // c[40]: sin 2 pi 3/52
        0.8229838658936564,  // c[41]: cos 2 pi 5/52
        0.5680647467311558,  // c[42]: sin 2 pi 5/52
        0.6631226582407952,  // c[43]: cos 2 pi 7/52
        0.7485107481711011,  // c[44]: sin 2 pi 7/52
        0.46472317204376856,  // c[45]: cos 2 pi 9/52
        0.8854560256532099,  // c[46]: sin 2 pi 9/52
        0.23931566428755777,  // c[47]: cos 2 pi 11/52
        0.970941817426052,  // c[48]: sin 2 pi 11/52
        0.11888864474491956,  // c[49]: -Q[1] of 53
        0.2535110589592131,  // c[50]: -P[1] of 53
        0.2471500091242084,  // c[51]: P[2] of 53
        0.13160258300584013,  // c[52]: -Q[2] of 53
        0.27934484277921784,  // c[53]: -Q[3] of 53
        0.01920483471835668,  // c[54]: -P[3] of 53
        0.049641770378907886,  // c[55]: P[4] of 53
        0.2755686148630738,  // c[56]: Q[4] of 53
        0.26663047052332334,  // c[57]: Q[5] of 53
        0.08550180730497182,  // c[58]: -P[5] of 53
        0.21010412063116707,  // c[59]: Q[6] of 53
        0.18509085703434766,  // c[60]: P[6] of 53
        0.2786708556034366,  // c[61]: Q[7] of 53
        0.02729324277461261,  // c[62]: -P[7] of 53
        0.27887234952845297,  // c[63]: Q[8] of 53
        0.02515113381908794,  // c[64]: P[8] of 53
        0.02027467783966699,  // c[65]: Q[9] of 53
        0.27926923264549397,  // c[66]: -P[9] of 53
        0.14060198882334973,  // c[67]: -P[10] of 53
        0.2421434442697633,  // c[68]: Q[10] of 53
        0.15489151598012768,  // c[69]: -Q[11] of 53
        0.23326162380743898,  // c[70]: -P[11] of 53
        0.20532068893261132,  // c[71]: P[12] of 53
        0.1903832491584887,  // c[72]: Q[12] of 53
        0.27729778231647617,  // c[73]: P[13] of 53
        0.038836925551200704,  // c[74]: Q[13] of 53
        0.09172503255893466,  // c[75]: P[14] of 53
        0.2645541253996386,  // c[76]: -Q[14] of 53
        0.2603347814141748,  // c[77]: -Q[15] of 53
        0.10309300873453617,  // c[78]: P[15] of 53
        0.04985858822323415,  // c[79]: Q[16] of 53
        0.27552946855879373,  // c[80]: -P[16] of 53
        0.27294272954157833,  // c[81]: -Q[17] of 53
        0.062487064695808406,  // c[82]: -P[17] of 53
        0.12218648440059575,  // c[83]: Q[18] of 53
        0.2519381469601781,  // c[84]: P[18] of 53
        0.26661085340441376,  // c[85]: Q[19] of 53
        0.0855629575860694,  // c[86]: -P[19] of 53
        0.279948840618166,  // c[87]: Q[20] of 53
        0.005568976607062611,  // c[88]: P[20] of 53
        0.10175361370042776,  // c[89]: -Q[21] of 53
        0.2608612063201607,  // c[90]: P[21] of 53
        0.21551686731931244,  // c[91]: Q[22] of 53
        0.17875918651855408,  // c[92]: P[22] of 53
        0.2795810907749542,  // c[93]: Q[23] of 53
        0.015387675100292094,  // c[94]: -P[23] of 53
        0.04799540743714245,  // c[95]: P[24] of 53
        0.2758601234844355,  // c[96]: -Q[24] of 53
        0.08072191645791539,  // c[97]: -Q[25] of 53
        0.26811627900458906,  // c[98]: P[25] of 53
        0.019230769230769232,  // c[99]: 1/52
        0.14000211325539458,  // c[100]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x11 = io.pair(11);
        // doubled bins
        const P t0 = c[2] * x11;
        const P x12 = io.pair(12);
        const P t1 = c[2] * x12;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x6 = io.pair(6);
        const P t3 = c[2] * x6;
        const P x21 = io.pair(21);
        const P t4 = c[2] * x21;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 3
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x4 = io.pair(4);
        // doubled bins
        const P t8 = c[2] * x4;
        const P x14 = io.pair(14);
        const P t9 = c[2] * x14;
        const P t10 = shuffled<0, 2>(t8, t9);
        // real block of 3
        const P t11 = t6 + t10;
        const P t12 = c[0] * t6;
        const P t13 = t10 - t12;
        const P x10 = io.pair(10);
        // doubled bins
        const P t14 = c[2] * x10;
        const P x18 = io.pair(18);
        const P t15 = c[2] * x18;
        const P t16 = shuffled<0, 2>(t14, t15);
        const P x7 = io.pair(7);
        const P t17 = c[2] * x7;
        const P x2 = io.pair(2);
        const P t18 = c[2] * x2;
        const P t19 = shuffled<0, 2>(t17, t18);
        // real block of 3
        const P t20 = t16 + t19;
        const P t21 = t16 - t19;
        const P x25 = io.pair(25);
        // doubled bins
        const P t22 = c[2] * x25;
        const P x8 = io.pair(8);
        const P t23 = c[2] * x8;
        const P t24 = shuffled<0, 2>(t22, t23);
        // real block of 3
        const P t25 = t20 + t24;
        const P t26 = c[0] * t20;
        const P t27 = t24 - t26;
        const P x24 = io.pair(24);
        // doubled bins
        const P t28 = c[2] * x24;
        const P x22 = io.pair(22);
        const P t29 = c[2] * x22;
        const P t30 = shuffled<0, 2>(t28, t29);
        const P x9 = io.pair(9);
        const P t31 = c[2] * x9;
        const P x5 = io.pair(5);
        const P t32 = c[2] * x5;
        const P t33 = shuffled<0, 2>(t31, t32);
        // real block of 3
        const P t34 = t30 + t33;
        const P t35 = t30 - t33;
        const P x13 = io.pair(13);
        // doubled bins
        const P t36 = c[2] * x13;
        const P x19 = io.pair(19);
        const P t37 = c[2] * x19;
        const P t38 = shuffled<0, 2>(t36, t37);
        // real block of 3
        const P t39 = t34 + t38;
        const P t40 = c[0] * t34;
        const P t41 = t38 - t40;
        const P x16 = io.pair(16);
        // doubled bins
        const P t42 = c[2] * x16;
        const P x3 = io.pair(3);
        const P t43 = c[2] * x3;
        const P t44 = shuffled<0, 2>(t42, t43);
        const P x15 = io.pair(15);
        const P t45 = c[2] * x15;
        const P x26 = io.pair(26);
        const P t46 = c[2] * x26;
        const P t47 = shuffled<0, 2>(t45, t46);
        // real block of 3
        const P t48 = t44 + t47;
        const P t49 = t44 - t47;
        const P x17 = io.pair(17);
        // doubled bins
        const P t50 = c[2] * x17;
        const P x20 = io.pair(20);
        const P t51 = c[2] * x20;
        const P t52 = shuffled<0, 2>(t50, t51);
        // real block of 3
        const P t53 = t48 + t52;
        const P t54 = c[0] * t48;
        const P t55 = t52 - t54;
        // real block of 2
        const P t56 = t11 + t39;
        const P t57 = t11 - t39;
        // real block of 2
        const P t58 = t25 + t53;
        const P t59 = t25 - t53;
        // real block of 2
        const P t60 = t56 + t58;
        const P t61 = t56 - t58;
        // complex block of 2
        const P t62 = t13 + t41;
        // real block of 3
        const P t63 = c[1] * t7;
        // real block of 3
        const P t64 = c[1] * t35;
        // complex block of 2
        const P t65 = t63 + t64;
        const P t66 = t13 - t41;
        const P t67 = t64 - t63;
        // complex block of 2
        const P t68 = t27 + t55;
        // real block of 3
        const P t69 = c[1] * t21;
        // real block of 3
        const P t70 = c[1] * t49;
        // complex block of 2
        const P t71 = t69 + t70;
        const P t72 = t27 - t55;
        const P t73 = t70 - t69;
        // complex block of 2
        const P t74 = t62 + t68;
        const P t75 = t65 + t71;
        const P t76 = t62 - t68;
        const P t77 = t71 - t65;
        // complex block of 2
        const P t78 = t66 - t73;
        const P t79 = t67 + t72;
        const P t80 = t66 + t73;
        const P t81 = t67 - t72;
        const P x1 = io.pair(1);
        // doubled bins
        const P t82 = c[2] * x1;
        const P x23 = io.pair(23);
        const P t83 = c[2] * x23;
        const P t84 = shuffled<0, 2>(t82, t83);
        // real block of 13, multiplier 2
        const P t85 = t84 + t60;
        const P t86 = c[5] * t60;
        const P t87 = t84 - t86;
        const P t88 = c[11] * t80;
        const P t89 = c[12] * t81;
        const P t90 = t88 + t89;
        const P t91 = c[11] * t81;
        const P t92 = c[12] * t80;
        const P t93 = t91 - t92;
        const P t94 = c[13] * t76;
        const P t95 = c[14] * t77;
        const P t96 = t94 - t95;
        const P t97 = c[13] * t77;
        const P t98 = c[14] * t76;
        const P t99 = t97 + t98;
        const P t100 = c[3] * t59;
        const P t101 = c[4] * t57;
        const P t102 = t100 - t101;
        const P t103 = c[4] * t59;
        const P t104 = c[3] * t57;
        const P t105 = t103 + t104;
        const P t106 = c[15] * t74;
        const P t107 = c[16] * t75;
        const P t108 = t106 - t107;
        const P t109 = c[15] * t75;
        const P t110 = c[16] * t74;
        const P t111 = t109 + t110;
        const P t112 = c[17] * t78;
        const P t113 = c[18] * t79;
        const P t114 = t112 + t113;
        const P t115 = c[18] * t78;
        const P t116 = c[17] * t79;
        const P t117 = t115 - t116;
        const P t118 = c[6] * t61;
        // spectrum block of 2
        const P t119 = t87 - t118;
        const P t120 = t87 + t118;
        // complex block of 2
        const P t121 = t99 - t111;
        const P t122 = t108 + t96;
        const P t123 = t111 + t99;
        const P t124 = t108 - t96;
        // spectrum block of 3, multiplier 2
        const P t125 = t122 + t119;
        const P t126 = c[0] * t122;
        const P t127 = t119 - t126;
        const P t128 = c[1] * t121;
        const P t129 = t127 - t128;
        const P t130 = t127 + t128;
        // spectrum block of 3, multiplier 2
        const P t131 = t124 + t120;
        const P t132 = c[0] * t124;
        const P t133 = t120 - t132;
        const P t134 = c[1] * t123;
        const P t135 = t133 + t134;
        const P t136 = t133 - t134;
        // complex block of 2
        const P t137 = t114 - t90;
        const P t138 = t93 + t117;
        const P t139 = t90 + t114;
        const P t140 = t93 - t117;
        // mirrored skew block of 6
        const P t141 = c[1] * t140;
        const P t142 = c[0] * t139;
        const P t143 = t141 + t142;
        // spectrum block of 3, multiplier 2
        const P t144 = t138 - t105;
        const P t145 = c[0] * t138;
        const P t146 = t105 + t145;
        const P t147 = c[1] * t137;
        const P t148 = t147 - t146;
        const P t149 = t146 + t147;
        // spectrum block of 3, multiplier 2
        const P t150 = t143 + t102;
        const P t151 = c[0] * t143;
        const P t152 = t102 - t151;
        const P t153 = c[19] * t140;
        const P t154 = c[20] * t139;
        const P t155 = t153 - t154;
        const P t156 = t152 + t155;
        const P t157 = t152 - t155;
        const V t158 = part<0>(t85);
        const V t159 = part<1>(t85);
        // real block of 2
        const V t160 = t158 + t159;
        const V t161 = t158 - t159;
        const P t162 = shuffled<0, 2>(t125, t144);
        const P t163 = shuffled<1, 3>(t125, t144);
        // complex block of 2
        const P t164 = t162 + t163;
        const P t165 = t162 - t163;
        const P t166 = shuffled<0, 2>(t136, t157);
        const P t167 = shuffled<1, 3>(t136, t157);
        // complex block of 2
        const P t168 = t166 + t167;
        const P t169 = shuffled<0, 3>(t166, t167);
        const P t170 = shuffled<0, 3>(t167, t166);
        const P t171 = t169 - t170;
        const P t172 = shuffled<0, 2>(t130, t148);
        const P t173 = shuffled<1, 3>(t130, t148);
        // complex block of 2
        const P t174 = t172 + t173;
        const P t175 = t172 - t173;
        const P t176 = shuffled<0, 2>(t129, t149);
        const P t177 = shuffled<1, 3>(t129, t149);
        // complex block of 2
        const P t178 = t176 + t177;
        const P t179 = t176 - t177;
        const P t180 = shuffled<0, 2>(t131, t156);
        const P t181 = shuffled<1, 3>(t131, t156);
        // complex block of 2
        const P t182 = t180 + t181;
        const P t183 = shuffled<0, 3>(t180, t181);
        const P t184 = shuffled<0, 3>(t181, t180);
        const P t185 = t183 - t184;
        const P t186 = shuffled<0, 2>(t135, t150);
        const P t187 = shuffled<1, 3>(t135, t150);
        // complex block of 2
        const P t188 = t186 + t187;
        const P t189 = shuffled<0, 3>(t186, t187);
        const P t190 = shuffled<0, 3>(t187, t186);
        const P t191 = t189 - t190;
        const P t192 = shuffled<1, 3>(t0, t29);
        const P t193 = shuffled<1, 3>(t3, t1);
        // real block of 3
        const P t194 = t192 + t193;
        const P t195 = t193 - t192;
        const P t196 = shuffled<1, 3>(t8, t23);
        const P t197 = t194 + t196;
        const P t198 = c[0] * t194;
        const P t199 = t198 - t196;
        const P t200 = shuffled<1, 3>(t14, t51);
        const P t201 = shuffled<1, 3>(t17, t9);
        // real block of 3
        const P t202 = t200 - t201;
        const P t203 = t200 + t201;
        const P t204 = shuffled<1, 3>(t22, t43);
        const P t205 = flipped<1, 0>(t204);
        const P t206 = t202 + t205;
        const P t207 = P(c[0], -c[0]) * t202;
        const P t208 = t204 + t207;
        const P t209 = shuffled<1, 3>(t28, t32);
        const P t210 = shuffled<1, 3>(t31, t15);
        const P t211 = flipped<1, 0>(t210);
        // real block of 3
        const P t212 = t209 + t211;
        const P t213 = flipped<0, 1>(t209);
        const P t214 = t210 + t213;
        const P t215 = shuffled<1, 3>(t36, t46);
        const P t216 = flipped<0, 1>(t212);
        const P t217 = t215 + t216;
        const P t218 = P(-c[0], c[0]) * t212;
        const P t219 = t218 + t215;
        const P t220 = shuffled<1, 3>(t42, t4);
        const P t221 = shuffled<1, 3>(t45, t83);
        // real block of 3
        const P t222 = t220 + t221;
        const P t223 = shuffled<0, 3>(t220, t221);
        const P t224 = shuffled<0, 3>(t221, t220);
        const P t225 = t223 - t224;
        const P t226 = shuffled<0, 3>(t222, t37);
        const P t227 = shuffled<1, 3>(t50, t222);
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
        const P t261 = shuffled<1, 3>(t82, t18);
        // real block of 13
        const P t262 = t261 + t236;
        const P t263 = c[5] * t236;
        const P t264 = t261 - t263;
        const P t265 = c[21] * t259;
        const P t266 = c[22] * t260;
        const P t267 = t265 + t266;
        const P t268 = c[21] * t260;
        const P t269 = c[22] * t259;
        const P t270 = t268 - t269;
        const P t271 = c[23] * t255;
        const P t272 = c[24] * t256;
        const P t273 = t271 + t272;
        const P t274 = c[24] * t255;
        const P t275 = c[23] * t256;
        const P t276 = t274 - t275;
        const P t277 = c[4] * t235;
        const P t278 = c[3] * t233;
        const P t279 = t277 - t278;
        const P t280 = c[3] * t235;
        const P t281 = c[4] * t233;
        const P t282 = t280 + t281;
        const P t283 = c[25] * t253;
        const P t284 = c[26] * t254;
        const P t285 = t283 + t284;
        const P t286 = c[26] * t253;
        const P t287 = c[25] * t254;
        const P t288 = t286 - t287;
        const P t289 = c[27] * t258;
        const P t290 = c[28] * t257;
        const P t291 = t289 - t290;
        const P t292 = c[28] * t258;
        const P t293 = c[27] * t257;
        const P t294 = t292 + t293;
        const P t295 = c[6] * t237;
        // spectrum block of 2
        const P t296 = t264 + t295;
        const P t297 = t264 - t295;
        // complex block of 2
        const P t298 = t288 - t276;
        const P t299 = t285 + t273;
        const P t300 = t288 + t276;
        const P t301 = t285 - t273;
        // spectrum block of 3, multiplier 2
        const P t302 = t299 + t296;
        const P t303 = c[0] * t299;
        const P t304 = t296 - t303;
        const P t305 = c[1] * t298;
        const P t306 = t304 - t305;
        const P t307 = t304 + t305;
        // spectrum block of 3, multiplier 2
        const P t308 = t301 + t297;
        const P t309 = c[0] * t301;
        const P t310 = t297 - t309;
        const P t311 = c[1] * t300;
        const P t312 = t310 - t311;
        const P t313 = t310 + t311;
        // complex block of 2
        const P t314 = t291 - t267;
        const P t315 = t270 + t294;
        const P t316 = t267 + t291;
        const P t317 = t270 - t294;
        // mirrored skew block of 6
        const P t318 = c[1] * t317;
        const P t319 = c[0] * t316;
        const P t320 = t318 + t319;
        // spectrum block of 3, multiplier 2
        const P t321 = t315 + t282;
        const P t322 = c[0] * t315;
        const P t323 = t282 - t322;
        const P t324 = c[1] * t314;
        const P t325 = t323 + t324;
        const P t326 = t323 - t324;
        // spectrum block of 3, multiplier 2
        const P t327 = t320 + t279;
        const P t328 = c[0] * t320;
        const P t329 = t279 - t328;
        const P t330 = c[19] * t317;
        const P t331 = c[20] * t316;
        const P t332 = t330 - t331;
        const P t333 = t329 + t332;
        const P t334 = t329 - t332;
        const P t335 = shuffled<1, 3>(t312, t327);
        // skew block of 26
        const P t336 = c[37] * t335;
        const P t337 = shuffled<1, 0>(t335);
        const P t338 = P(c[38], -c[38]) * t337;
        const P t339 = t336 + t338;
        const P t340 = shuffled<0, 2>(t312, t327);
        // complex block of 2
        const P t341 = t340 + t339;
        const P t342 = t340 - t339;
        const P t343 = shuffled<1, 3>(t308, t333);
        // skew block of 26
        const P t344 = c[39] * t343;
        const P t345 = shuffled<1, 0>(t343);
        const P t346 = P(c[40], -c[40]) * t345;
        const P t347 = t344 + t346;
        const P t348 = shuffled<0, 2>(t308, t333);
        // complex block of 2
        const P t349 = t348 + t347;
        const P t350 = t348 - t347;
        const P t351 = shuffled<1, 3>(t306, t326);
        // skew block of 26
        const P t352 = c[41] * t351;
        const P t353 = shuffled<1, 0>(t351);
        const P t354 = P(c[42], -c[42]) * t353;
        const P t355 = t352 + t354;
        const P t356 = shuffled<0, 2>(t306, t326);
        // complex block of 2
        const P t357 = t356 + t355;
        const P t358 = t356 - t355;
        const P t359 = shuffled<1, 3>(t307, t325);
        // skew block of 26
        const P t360 = c[43] * t359;
        const P t361 = shuffled<1, 0>(t359);
        const P t362 = P(-c[44], c[44]) * t361;
        const P t363 = t360 + t362;
        const P t364 = shuffled<0, 2>(t307, t325);
        // complex block of 2
        const P t365 = t364 + t363;
        const P t366 = shuffled<0, 3>(t364, t363);
        const P t367 = shuffled<0, 3>(t363, t364);
        const P t368 = t366 - t367;
        const P t369 = shuffled<1, 3>(t313, t334);
        // skew block of 26
        const P t370 = c[45] * t369;
        const P t371 = shuffled<1, 0>(t369);
        const P t372 = P(c[46], -c[46]) * t371;
        const P t373 = t370 + t372;
        const P t374 = shuffled<0, 2>(t313, t334);
        // complex block of 2
        const P t375 = t374 + t373;
        const P t376 = t374 - t373;
        const P t377 = shuffled<1, 3>(t302, t321);
        // skew block of 26
        const P t378 = c[47] * t377;
        const P t379 = shuffled<1, 0>(t377);
        const P t380 = P(-c[48], c[48]) * t379;
        const P t381 = t378 + t380;
        const P t382 = shuffled<0, 2>(t302, t321);
        // complex block of 2
        const P t383 = t382 + t381;
        const P t384 = shuffled<0, 3>(t382, t381);
        const P t385 = shuffled<0, 3>(t381, t382);
        const P t386 = t384 - t385;
        const V x0r = io.re(0);
        // spectrum block of 53
        const V t387 = c[99] * t160;
        const V t388 = x0r - t387;
        const P t389 = P(-c[49], c[49]) * t341;
        const P t390 = shuffled<1, 0>(t341);
        const P t391 = c[50] * t390;
        const P t392 = t389 + t391;
        const P t393 = c[51] * t191;
        const P t394 = shuffled<1, 0>(t191);
        const P t395 = P(-c[52], c[52]) * t394;
        const P t396 = t393 + t395;
        const P t397 = P(-c[53], c[53]) * t349;
        const P t398 = shuffled<1, 0>(t349);
        const P t399 = c[54] * t398;
        const P t400 = t397 + t399;
        const P t401 = c[55] * t164;
        const P t402 = shuffled<1, 0>(t164);
        const P t403 = P(-c[56], c[56]) * t402;
        const P t404 = t401 + t403;
        const P t405 = c[57] * t357;
        const P t406 = shuffled<1, 0>(t357);
        const P t407 = P(c[58], -c[58]) * t406;
        const P t408 = t405 + t407;
        const P t409 = shuffled<1, 0>(t185);
        const P t410 = c[59] * t409;
        const P t411 = P(c[60], -c[60]) * t185;
        const P t412 = t410 + t411;
        const P t413 = c[61] * t365;
        const P t414 = shuffled<1, 0>(t365);
        const P t415 = P(-c[62], c[62]) * t414;
        const P t416 = t413 + t415;
        const P t417 = shuffled<1, 0>(t168);
        const P t418 = c[63] * t417;
        const P t419 = P(c[64], -c[64]) * t168;
        const P t420 = t418 + t419;
        const P t421 = c[65] * t375;
        const P t422 = shuffled<1, 0>(t375);
        const P t423 = P(c[66], -c[66]) * t422;
        const P t424 = t421 + t423;
        const P t425 = P(-c[67], c[67]) * t179;
        const P t426 = shuffled<1, 0>(t179);
        const P t427 = c[68] * t426;
        const P t428 = t425 + t427;
        const P t429 = c[69] * t383;
        const P t430 = shuffled<1, 0>(t383);
        const P t431 = P(c[70], -c[70]) * t430;
        const P t432 = t429 + t431;
        const P t433 = c[71] * t174;
        const P t434 = shuffled<1, 0>(t174);
        const P t435 = P(-c[72], c[72]) * t434;
        const P t436 = t433 + t435;
        const P t437 = shuffled<1, 0>(t262);
        const P t438 = c[73] * t437;
        const P t439 = P(c[74], -c[74]) * t262;
        const P t440 = t438 + t439;
        const P t441 = c[75] * t175;
        const P t442 = shuffled<1, 0>(t175);
        const P t443 = P(-c[76], c[76]) * t442;
        const P t444 = t441 + t443;
        const P t445 = P(-c[77], c[77]) * t386;
        const P t446 = shuffled<1, 0>(t386);
        const P t447 = c[78] * t446;
        const P t448 = t445 + t447;
        const P t449 = shuffled<1, 0>(t178);
        const P t450 = c[79] * t449;
        const P t451 = P(c[80], -c[80]) * t178;
        const P t452 = t450 + t451;
        const P t453 = c[81] * t376;
        const P t454 = shuffled<1, 0>(t376);
        const P t455 = P(c[82], -c[82]) * t454;
        const P t456 = t453 + t455;
        const P t457 = shuffled<1, 0>(t171);
        const P t458 = c[83] * t457;
        const P t459 = P(c[84], -c[84]) * t171;
        const P t460 = t458 + t459;
        const P t461 = c[85] * t368;
        const P t462 = shuffled<1, 0>(t368);
        const P t463 = P(-c[86], c[86]) * t462;
        const P t464 = t461 + t463;
        const P t465 = shuffled<1, 0>(t182);
        const P t466 = c[87] * t465;
        const P t467 = P(c[88], -c[88]) * t182;
        const P t468 = t466 + t467;
        const P t469 = P(-c[89], c[89]) * t358;
        const P t470 = shuffled<1, 0>(t358);
        const P t471 = c[90] * t470;
        const P t472 = t469 + t471;
        const P t473 = shuffled<1, 0>(t165);
        const P t474 = c[91] * t473;
        const P t475 = P(c[92], -c[92]) * t165;
        const P t476 = t474 + t475;
        const P t477 = c[93] * t350;
        const P t478 = shuffled<1, 0>(t350);
        const P t479 = P(-c[94], c[94]) * t478;
        const P t480 = t477 + t479;
        const P t481 = c[95] * t188;
        const P t482 = shuffled<1, 0>(t188);
        const P t483 = P(-c[96], c[96]) * t482;
        const P t484 = t481 + t483;
        const P t485 = P(-c[97], c[97]) * t342;
        const P t486 = shuffled<1, 0>(t342);
        const P t487 = c[98] * t486;
        const P t488 = t485 + t487;
        const P t489 = flipped<1, 0>(t456);
        // real block of 2
        const P t490 = t489 + t424;
        const P t491 = flipped<0, 1>(t424);
        const P t492 = t456 + t491;
        // real block of 2
        const P t493 = t416 + t464;
        const P t494 = t416 - t464;
        // real block of 2
        const P t495 = t490 + t493;
        const P t496 = t490 - t493;
        const P t497 = flipped<0, 1>(t392);
        // real block of 2
        const P t498 = t488 + t497;
        const P t499 = t488 - t497;
        // real block of 2
        const P t500 = t408 + t472;
        const P t501 = t408 - t472;
        // real block of 2
        const P t502 = t498 + t500;
        const P t503 = t498 - t500;
        // real block of 2
        const P t504 = t400 + t480;
        const P t505 = t400 - t480;
        const P t506 = flipped<1, 0>(t432);
        // real block of 2
        const P t507 = t506 + t448;
        const P t508 = t448 - t506;
        const P t509 = flipped<0, 1>(t507);
        // real block of 2
        const P t510 = t504 + t509;
        const P t511 = t504 - t509;
        // real block of 3
        const P t512 = t502 + t510;
        const P t513 = t502 - t510;
        const P t514 = t512 + t495;
        const P t515 = c[0] * t512;
        const P t516 = t495 - t515;
        // complex block of 3
        const P t517 = t499 + t505;
        const P t518 = flipped<1, 0>(t508);
        const P t519 = t501 + t518;
        const P t520 = t499 - t505;
        const P t521 = t501 - t518;
        const P t522 = flipped<1, 0>(t492);
        const P t523 = t517 + t522;
        const P t524 = t519 + t494;
        const P t525 = P(c[0], -c[0]) * t517;
        const P t526 = t492 + t525;
        const P t527 = c[0] * t519;
        const P t528 = t494 - t527;
        const P t529 = flipped<1, 0>(t526);
        const P t530 = c[1] * t521;
        const P t531 = t529 + t530;
        const P t532 = c[1] * t520;
        const P t533 = t528 - t532;
        const P t534 = flipped<0, 1>(t530);
        const P t535 = t526 + t534;
        const P t536 = t528 + t532;
        // real block of 3
        const P t537 = t503 + t511;
        const P t538 = t503 - t511;
        const P t539 = t537 + t496;
        const P t540 = c[0] * t537;
        const P t541 = t496 - t540;
        // complex block of 13, multiplier 4
        const P t542 = t440 + t514;
        const P t543 = c[5] * t514;
        const P t544 = t440 - t543;
        const P t545 = shuffled<1, 0>(t535);
        const P t546 = P(-c[7], c[7]) * t545;
        const P t547 = shuffled<1, 0>(t536);
        const P t548 = c[8] * t547;
        const P t549 = t546 + t548;
        const P t550 = c[8] * t545;
        const P t551 = P(c[7], -c[7]) * t547;
        const P t552 = t550 + t551;
        const P t553 = c[29] * t541;
        // real block of 3
        const P t554 = c[1] * t538;
        // complex block of 13, multiplier 4
        const P t555 = c[30] * t554;
        const P t556 = t553 + t555;
        const P t557 = shuffled<1, 0>(t524);
        const P t558 = P(-c[3], c[3]) * t557;
        const P t559 = shuffled<1, 0>(t523);
        const P t560 = P(c[4], -c[4]) * t559;
        const P t561 = t558 + t560;
        const P t562 = c[4] * t557;
        const P t563 = c[3] * t559;
        const P t564 = t562 + t563;
        const P t565 = c[31] * t516;
        // real block of 3
        const P t566 = c[1] * t513;
        // complex block of 13, multiplier 4
        const P t567 = c[32] * t566;
        const P t568 = t565 + t567;
        const P t569 = shuffled<1, 0>(t531);
        const P t570 = P(-c[9], c[9]) * t569;
        const P t571 = shuffled<1, 0>(t533);
        const P t572 = P(c[10], -c[10]) * t571;
        const P t573 = t570 + t572;
        const P t574 = c[9] * t571;
        const P t575 = c[10] * t569;
        const P t576 = t574 + t575;
        // spectrum block of 3
        const P t577 = t544 - t568;
        const P t578 = c[0] * t568;
        const P t579 = t578 + t544;
        const P t580 = c[33] * t566;
        const P t581 = c[34] * t516;
        const P t582 = t580 - t581;
        const P t583 = t579 - t582;
        const P t584 = t579 + t582;
        const P t585 = flipped<0, 1>(t552);
        // complex block of 3
        const P t586 = t576 + t585;
        const P t587 = flipped<0, 1>(t549);
        const P t588 = t573 + t587;
        const P t589 = flipped<1, 0>(t576);
        const P t590 = t589 + t552;
        const P t591 = t573 - t587;
        const P t592 = shuffled<0, 3>(t564, t586);
        const P t593 = shuffled<0, 3>(t586, t564);
        const P t594 = t592 - t593;
        const P t595 = t588 + t561;
        const P t596 = c[0] * t586;
        const P t597 = t564 + t596;
        const P t598 = c[0] * t588;
        const P t599 = t561 - t598;
        const P t600 = c[1] * t591;
        const P t601 = flipped<0, 1>(t597);
        const P t602 = t600 + t601;
        const P t603 = c[1] * t590;
        const P t604 = t599 - t603;
        const P t605 = flipped<1, 0>(t600);
        const P t606 = t597 + t605;
        const P t607 = t599 + t603;
        // complex block of 13, multiplier 4
        const P t608 = c[6] * t539;
        // spectrum block of 3
        const P t609 = t556 + t608;
        const P t610 = c[0] * t556;
        const P t611 = t608 - t610;
        const P t612 = c[35] * t554;
        const P t613 = c[36] * t541;
        const P t614 = t612 - t613;
        const P t615 = t611 + t614;
        const P t616 = t611 - t614;
        // spectrum block of 2
        const P t617 = t577 + t609;
        const P t618 = t577 - t609;
        // spectrum block of 2
        const P t619 = t617 + t595;
        const P t620 = t617 - t595;
        // spectrum block of 2
        const P t621 = t618 + t594;
        const P t622 = t618 - t594;
        // spectrum block of 2
        const P t623 = t583 + t615;
        const P t624 = t583 - t615;
        // spectrum block of 2
        const P t625 = t623 + t604;
        const P t626 = t623 - t604;
        // spectrum block of 2
        const P t627 = t624 + t602;
        const P t628 = t624 - t602;
        // spectrum block of 2
        const P t629 = t584 + t616;
        const P t630 = t584 - t616;
        // spectrum block of 2
        const P t631 = t629 + t607;
        const P t632 = t629 - t607;
        const P t633 = flipped<0, 1>(t606);
        // spectrum block of 2
        const P t634 = t630 + t633;
        const P t635 = t630 - t633;
        const P t636 = shuffled<0, 2>(t436, t428);
        const P t637 = shuffled<0, 2>(t452, t444);
        const P t638 = flipped<1, 0>(t637);
        // real block of 3, multiplier 2
        const P t639 = t636 + t638;
        const P t640 = t636 - t638;
        const P t641 = shuffled<0, 2>(t404, t476);
        const P t642 = t639 + t641;
        const P t643 = c[0] * t639;
        const P t644 = t641 - t643;
        const P t645 = shuffled<0, 2>(t484, t396);
        const P t646 = shuffled<0, 2>(t420, t460);
        // real block of 3, multiplier 2
        const P t647 = t645 + t646;
        const P t648 = t645 - t646;
        const P t649 = shuffled<0, 2>(t468, t412);
        const P t650 = t647 + t649;
        const P t651 = c[0] * t647;
        const P t652 = t649 - t651;
        // real block of 2
        const P t653 = t642 + t650;
        const P t654 = t642 - t650;
        // complex block of 2
        const P t655 = t644 + t652;
        // real block of 3, multiplier 2
        const P t656 = P(-c[1], c[1]) * t640;
        // real block of 3, multiplier 2
        const P t657 = c[1] * t648;
        // complex block of 2
        const P t658 = t656 + t657;
        const P t659 = t644 - t652;
        const P t660 = flipped<1, 0>(t656);
        const P t661 = flipped<0, 1>(t657);
        const P t662 = t660 + t661;
        const P t663 = shuffled<1, 3>(t420, t460);
        // skew block of 6
        const P t664 = c[1] * t663;
        const P t665 = shuffled<1, 3>(t436, t444);
        const P t666 = P(-c[0], c[0]) * t665;
        const P t667 = t664 + t666;
        const P t668 = c[0] * t663;
        const P t669 = P(c[1], -c[1]) * t665;
        const P t670 = t668 + t669;
        const P t671 = shuffled<1, 3>(t452, t428);
        const P t672 = c[0] * t671;
        const P t673 = shuffled<1, 3>(t484, t396);
        const P t674 = c[1] * t673;
        const P t675 = t672 + t674;
        const P t676 = P(-c[1], c[1]) * t671;
        const P t677 = P(c[0], -c[0]) * t673;
        const P t678 = t676 + t677;
        // complex block of 3
        const P t679 = t667 + t675;
        const P t680 = flipped<1, 0>(t670);
        const P t681 = t680 + t678;
        const P t682 = shuffled<0, 3>(t667, t675);
        const P t683 = shuffled<0, 3>(t675, t667);
        const P t684 = t682 - t683;
        const P t685 = flipped<0, 1>(t678);
        const P t686 = t670 + t685;
        const P t687 = shuffled<1, 3>(t404, t476);
        const P t688 = t679 + t687;
        const P t689 = shuffled<1, 3>(t468, t412);
        const P t690 = flipped<0, 1>(t689);
        const P t691 = t681 + t690;
        const P t692 = P(-c[0], c[0]) * t679;
        const P t693 = flipped<0, 1>(t687);
        const P t694 = t692 + t693;
        const P t695 = P(-c[0], c[0]) * t681;
        const P t696 = t689 + t695;
        const P t697 = P(-c[1], c[1]) * t686;
        const P t698 = t694 + t697;
        const P t699 = P(-c[1], c[1]) * t684;
        const P t700 = t696 + t699;
        const P t701 = t694 - t697;
        const P t702 = shuffled<0, 3>(t696, t699);
        const P t703 = shuffled<0, 3>(t699, t696);
        const P t704 = t702 - t703;
        // spectrum block of 53
        const V t705 = c[100] * t161;
        const P t706 = joined(t388, t705);
        // spectrum block of 13, multiplier 4
        const P t707 = c[5] * t653;
        const P t708 = t706 - t707;
        const P t709 = c[7] * t688;
        const P t710 = P(c[8], -c[8]) * t691;
        const P t711 = t709 + t710;
        const P t712 = P(-c[7], c[7]) * t691;
        const P t713 = c[8] * t688;
        const P t714 = t712 + t713;
        const P t715 = c[29] * t659;
        const P t716 = P(c[30], -c[30]) * t662;
        const P t717 = t715 + t716;
        const P t718 = c[4] * t701;
        const P t719 = c[3] * t704;
        const P t720 = t718 + t719;
        const P t721 = c[3] * t701;
        const P t722 = c[4] * t704;
        const P t723 = t721 - t722;
        const P t724 = c[32] * t658;
        const P t725 = c[31] * t655;
        const P t726 = t724 - t725;
        const P t727 = c[10] * t700;
        const P t728 = P(c[9], -c[9]) * t698;
        const P t729 = t727 + t728;
        const P t730 = P(-c[9], c[9]) * t700;
        const P t731 = c[10] * t698;
        const P t732 = t730 + t731;
        // spectrum block of 3
        const P t733 = t726 + t708;
        const P t734 = c[0] * t726;
        const P t735 = t708 - t734;
        const P t736 = c[33] * t658;
        const P t737 = c[34] * t655;
        const P t738 = t736 + t737;
        const P t739 = t735 + t738;
        const P t740 = t735 - t738;
        const P t741 = flipped<0, 1>(t732);
        // complex block of 3
        const P t742 = t714 + t741;
        const P t743 = t729 + t711;
        const P t744 = t714 - t741;
        const P t745 = shuffled<0, 3>(t711, t729);
        const P t746 = shuffled<0, 3>(t729, t711);
        const P t747 = t745 - t746;
        const P t748 = flipped<1, 0>(t742);
        const P t749 = t748 + t723;
        const P t750 = flipped<1, 0>(t743);
        const P t751 = t750 + t720;
        const P t752 = P(c[0], -c[0]) * t742;
        const P t753 = t723 + t752;
        const P t754 = P(c[0], -c[0]) * t743;
        const P t755 = t720 + t754;
        const P t756 = c[1] * t747;
        const P t757 = t753 + t756;
        const P t758 = P(-c[1], c[1]) * t744;
        const P t759 = t755 + t758;
        const P t760 = t753 - t756;
        const P t761 = t755 - t758;
        // spectrum block of 13, multiplier 4
        const P t762 = c[6] * t654;
        // spectrum block of 3
        const P t763 = t717 + t762;
        const P t764 = c[0] * t717;
        const P t765 = t762 - t764;
        const P t766 = c[35] * t662;
        const P t767 = P(-c[36], c[36]) * t659;
        const P t768 = t766 + t767;
        const P t769 = flipped<0, 1>(t768);
        const P t770 = t765 + t769;
        const P t771 = t765 - t769;
        // spectrum block of 2
        const P t772 = t733 + t763;
        const P t773 = t733 - t763;
        // spectrum block of 2
        const P t774 = t772 + t751;
        const P t775 = t772 - t751;
        // spectrum block of 2
        const P t776 = t773 + t749;
        const P t777 = t773 - t749;
        // spectrum block of 2
        const P t778 = t739 + t770;
        const P t779 = t739 - t770;
        // spectrum block of 2
        const P t780 = t778 + t759;
        const P t781 = t778 - t759;
        // spectrum block of 2
        const P t782 = t779 + t757;
        const P t783 = t779 - t757;
        // spectrum block of 2
        const P t784 = t740 + t771;
        const P t785 = t740 - t771;
        // spectrum block of 2
        const P t786 = t784 + t761;
        const P t787 = t784 - t761;
        // spectrum block of 2
        const P t788 = t785 + t760;
        const P t789 = t785 - t760;
        // spectrum block of 13, multiplier 4
        const P t790 = t706 + t653;
        const P t791 = shuffled<0, 2>(t790, t774);
        const P t792 = shuffled<1, 3>(t790, t774);
        // spectrum block of 2
        const P t793 = t791 + t792;
        const P t794 = t791 - t792;
        const P t795 = shuffled<0, 2>(t542, t619);
        // spectrum block of 2
        const P t796 = t793 + t795;
        io.out(1, 10, t796);
        const P t797 = t793 - t795;
        io.out(52, 43, t797);
        const P t798 = shuffled<1, 3>(t542, t619);
        // spectrum block of 2
        const P t799 = t794 - t798;
        io.out(23, 18, t799);
        const P t800 = t794 + t798;
        io.out(30, 35, t800);
        const P t801 = shuffled<0, 2>(t788, t786);
        const P t802 = shuffled<1, 3>(t788, t786);
        // spectrum block of 2
        const P t803 = t801 + t802;
        const P t804 = t801 - t802;
        const P t805 = shuffled<0, 2>(t634, t631);
        // spectrum block of 2
        const P t806 = t803 + t805;
        io.out(47, 46, t806);
        const P t807 = t803 - t805;
        io.out(6, 7, t807);
        const P t808 = shuffled<1, 3>(t634, t631);
        // spectrum block of 2
        const P t809 = t804 - t808;
        io.out(21, 51, t809);
        const P t810 = t804 + t808;
        io.out(32, 2, t810);
        const P t811 = shuffled<0, 2>(t781, t776);
        const P t812 = shuffled<1, 3>(t781, t776);
        // spectrum block of 2
        const P t813 = t811 + t812;
        const P t814 = t811 - t812;
        const P t815 = shuffled<0, 2>(t626, t621);
        // spectrum block of 2
        const P t816 = t813 + t815;
        io.out(36, 42, t816);
        const P t817 = t813 - t815;
        io.out(17, 11, t817);
        const P t818 = shuffled<1, 3>(t626, t621);
        // spectrum block of 2
        const P t819 = t814 - t818;
        io.out(33, 12, t819);
        const P t820 = t814 + t818;
        io.out(20, 41, t820);
        const P t821 = shuffled<0, 2>(t782, t783);
        const P t822 = shuffled<1, 3>(t782, t783);
        // spectrum block of 2
        const P t823 = t821 + t822;
        const P t824 = t821 - t822;
        const P t825 = shuffled<0, 2>(t627, t628);
        // spectrum block of 2
        const P t826 = t823 + t825;
        io.out(49, 13, t826);
        const P t827 = t823 - t825;
        io.out(4, 40, t827);
        const P t828 = shuffled<1, 3>(t627, t628);
        // spectrum block of 2
        const P t829 = t824 - t828;
        io.out(14, 34, t829);
        const P t830 = t824 + t828;
        io.out(39, 19, t830);
        const P t831 = shuffled<0, 2>(t777, t780);
        const P t832 = shuffled<1, 3>(t777, t780);
        // spectrum block of 2
        const P t833 = t831 + t832;
        const P t834 = t831 - t832;
        const P t835 = shuffled<0, 2>(t622, t625);
        // spectrum block of 2
        const P t836 = t833 + t835;
        io.out(24, 28, t836);
        const P t837 = t833 - t835;
        io.out(29, 25, t837);
        const P t838 = shuffled<1, 3>(t622, t625);
        // spectrum block of 2
        const P t839 = t834 - t838;
        io.out(22, 8, t839);
        const P t840 = t834 + t838;
        io.out(31, 45, t840);
        const P t841 = shuffled<0, 2>(t787, t789);
        const P t842 = shuffled<1, 3>(t787, t789);
        // spectrum block of 2
        const P t843 = t841 + t842;
        const P t844 = t841 - t842;
        const P t845 = shuffled<0, 2>(t632, t635);
        // spectrum block of 2
        const P t846 = t843 + t845;
        io.out(15, 44, t846);
        const P t847 = t843 - t845;
        io.out(38, 9, t847);
        const P t848 = shuffled<1, 3>(t632, t635);
        // spectrum block of 2
        const P t849 = t844 - t848;
        io.out(27, 5, t849);
        const P t850 = t844 + t848;
        io.out(26, 48, t850);
        const V t851 = part<0>(t775);
        const V t852 = part<1>(t775);
        // spectrum block of 2
        const V t853 = t851 + t852;
        const V t854 = t851 - t852;
        const P t855 = joined(t853, t854);
        const P t856 = flipped<0, 1>(t620);
        // spectrum block of 2
        const P t857 = t855 + t856;
        io.out(16, 50, t857);
        const P t858 = t855 - t856;
        io.out(37, 3, t858);
        // spectrum block of 53
        const V t859 = x0r + t160;
        io.out(0, t859);
    }
};

}  // namespace zulg
