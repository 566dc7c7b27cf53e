// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 53.
// Complex DFT of 53 points, Rader block; two lines of a stage to a register.
// 251 sums, 193 differences, 215 products of registers, which do the 2718 steps of the graph, those with
// `scale` included; 162 shuffles, 54 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<53> {
    static constexpr int steps = 2718;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5751407294740031,  // c[2]: -P[3] of 13
        0.1741386011521359,  // c[3]: Q[3] of 13
        0.6007253775544544,  // c[4]: -Q[1] of 13
        0.015496188988565054,  // c[5]: -P[1] of 13
        0.3203288761978803,  // c[6]: -P[5] of 13
        0.5084294662830964,  // c[7]: -Q[5] of 13
        0.007705858903092426,  // c[8]: P[2] of 13
        0.6008758031820526,  // c[9]: -Q[2] of 13
        0.5794400189009605,  // c[10]: -P[4] of 13
        0.15924941320823024,  // c[11]: -Q[4] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.5018097763375671,  // c[16]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[17]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[18]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[19]: sin 2 pi 1/3 times -Q[2] of 13
        0.20532068893261132,  // c[20]: P[12] of 53
        0.09172503255893466,  // c[21]: P[14] of 53
        0.1903832491584887,  // c[22]: Q[12] of 53
        0.2645541253996386,  // c[23]: -Q[14] of 53
        0.27552946855879373,  // c[24]: -P[16] of 53
        0.14060198882334973,  // c[25]: -P[10] of 53
        0.04985858822323415,  // c[26]: Q[16] of 53
        0.2421434442697633,  // c[27]: Q[10] of 53
        0.049641770378907886,  // c[28]: P[4] of 53
        0.17875918651855408,  // c[29]: P[22] of 53
        0.2755686148630738,  // c[30]: Q[4] of 53
        0.21551686731931244,  // c[31]: Q[22] of 53
        0.02515113381908794,  // c[32]: P[8] of 53
        0.2519381469601781,  // c[33]: P[18] of 53
        0.27887234952845297,  // c[34]: Q[8] of 53
        0.12218648440059575,  // c[35]: Q[18] of 53
        0.005568976607062611,  // c[36]: P[20] of 53
        0.18509085703434766,  // c[37]: P[6] of 53
        0.279948840618166,  // c[38]: Q[20] of 53
        0.21010412063116707,  // c[39]: Q[6] of 53
        0.04799540743714245,  // c[40]: P[24] of 53
        0.2471500091242084,  // c[41]: P[2] of 53
        0.2758601234844355,  // c[42]: -Q[24] of 53
        0.13160258300584013,  // c[43]: -Q[2] of 53
        0.2535110589592131,  // c[44]: P[1] of 53
        0.11888864474491956,  // c[45]: Q[1] of 53
        0.08072191645791539,  // c[46]: Q[25] of 53
        0.26811627900458906,  // c[47]: -P[25] of 53
        0.01920483471835668,  // c[48]: P[3] of 53
        0.27934484277921784,  // c[49]: Q[3] of 53
        0.015387675100292094,  // c[50]: P[23] of 53
        0.2795810907749542,  // c[51]: -Q[23] of 53
        0.08550180730497182,  // c[52]: P[5] of 53
        0.26663047052332334,  // c[53]: -Q[5] of 53
        0.23326162380743898,  // c[54]: P[11] of 53
        0.10309300873453617,  // c[55]: -P[15] of 53
        0.15489151598012768,  // c[56]: Q[11] of 53
        0.2603347814141748,  // c[57]: Q[15] of 53
        0.10175361370042776,  // c[58]: Q[21] of 53
        0.2608612063201607,  // c[59]: -P[21] of 53
        0.27926923264549397,  // c[60]: P[9] of 53
        0.02027467783966699,  // c[61]: -Q[9] of 53
        0.062487064695808406,  // c[62]: P[17] of 53
        0.27294272954157833,  // c[63]: Q[17] of 53
        0.2786708556034366,  // c[64]: -Q[7] of 53
        0.26661085340441376,  // c[65]: -Q[19] of 53
        0.02729324277461261,  // c[66]: P[7] of 53
        0.0855629575860694,  // c[67]: P[19] of 53
        0.038836925551200704,  // c[68]: -Q[13] of 53
        0.27729778231647617,  // c[69]: -P[13] of 53
        0.019230769230769232,  // c[70]: 1/52
        0.14000211325539458,  // c[71]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x46_2 = io.pairs(46, 2);
        const Q x28_45 = io.pairs(28, 45);
        // real block of 3
        const Q t0 = x46_2 + x28_45;
        const Q t1 = x46_2 - x28_45;
        const Q x15_26 = io.pairs(15, 26);
        const Q x36_20 = io.pairs(36, 20);
        // real block of 3
        const Q t2 = x15_26 + x36_20;
        const Q t3 = x15_26 - x36_20;
        const Q x16_3 = io.pairs(16, 3);
        const Q t4 = t2 + x16_3;
        const Q x10_35 = io.pairs(10, 35);
        // real block of 3
        const Q t5 = t0 + x10_35;
        // real block of 2
        const Q t6 = t4 + t5;
        // real block of 3
        const Q t7 = c[0] * t2;
        const Q t8 = x16_3 - t7;
        // real block of 3
        const Q t9 = c[0] * t0;
        const Q t10 = x10_35 - t9;
        // complex block of 2
        const Q t11 = t8 - t10;
        // real block of 3
        const Q t12 = c[1] * t3;
        // real block of 3
        const Q t13 = c[1] * t1;
        // complex block of 2
        const Q t14 = t12 + t13;
        const Q t15 = t13 - t12;
        const Q x44_48 = io.pairs(44, 48);
        const Q x13_19 = io.pairs(13, 19);
        // real block of 3
        const Q t16 = x44_48 + x13_19;
        const Q t17 = x44_48 - x13_19;
        const Q x47_32 = io.pairs(47, 32);
        const Q x49_39 = io.pairs(49, 39);
        // real block of 3
        const Q t18 = x47_32 + x49_39;
        const Q t19 = x47_32 - x49_39;
        const Q x42_41 = io.pairs(42, 41);
        const Q t20 = t18 + x42_41;
        const Q x24_31 = io.pairs(24, 31);
        // real block of 3
        const Q t21 = t16 + x24_31;
        // real block of 2
        const Q t22 = t20 + t21;
        // real block of 3
        const Q t23 = c[0] * t18;
        const Q t24 = x42_41 - t23;
        // real block of 3
        const Q t25 = c[0] * t16;
        const Q t26 = x24_31 - t25;
        // complex block of 2
        const Q t27 = t24 - t26;
        // real block of 3
        const Q t28 = c[1] * t19;
        // real block of 3
        const Q t29 = c[1] * t17;
        // complex block of 2
        const Q t30 = t28 + t29;
        const Q t31 = t29 - t28;
        // real block of 2
        const Q t32 = t4 - t5;
        // real block of 2
        const Q t33 = t20 - t21;
        // real block of 13, multiplier 4
        const Q t34 = c[2] * t32;
        const Q t35 = c[3] * t33;
        const Q t36 = t34 + t35;
        const Q t37 = c[3] * t32;
        const Q t38 = c[2] * t33;
        const Q t39 = t37 - t38;
        // real block of 2
        const Q t40 = t6 + t22;
        const Q x1_30 = io.pairs(1, 30);
        // real block of 13, multiplier 4
        const Q t41 = c[12] * t40;
        const Q t42 = x1_30 - t41;
        // real block of 2
        const Q t43 = t6 - t22;
        // complex block of 2
        const Q t44 = t8 + t10;
        // complex block of 2
        const Q t45 = t24 + t26;
        // complex block of 2
        const Q t46 = t44 + t45;
        const Q t47 = t44 - t45;
        const Q t48 = t14 + t30;
        const Q t49 = t30 - t14;
        // real block of 13, multiplier 4
        const Q t50 = c[8] * t47;
        const Q t51 = c[9] * t49;
        const Q t52 = t50 - t51;
        const Q t53 = c[8] * t49;
        const Q t54 = c[9] * t47;
        const Q t55 = t53 + t54;
        const Q t56 = c[10] * t46;
        const Q t57 = c[11] * t48;
        const Q t58 = t56 + t57;
        const Q t59 = c[10] * t48;
        const Q t60 = c[11] * t46;
        const Q t61 = t59 - t60;
        // complex block of 2
        const Q t62 = t11 - t31;
        const Q t63 = t15 + t27;
        const Q t64 = t11 + t31;
        const Q t65 = t15 - t27;
        // real block of 13, multiplier 4
        const Q t66 = c[4] * t65;
        const Q t67 = c[5] * t64;
        const Q t68 = t66 - t67;
        const Q t69 = c[6] * t62;
        const Q t70 = c[7] * t63;
        const Q t71 = t69 + t70;
        // complex block of 2
        const Q t72 = t71 - t68;
        // real block of 13, multiplier 4
        const Q t73 = c[5] * t65;
        const Q t74 = c[4] * t64;
        const Q t75 = t73 + t74;
        const Q t76 = c[6] * t63;
        const Q t77 = c[7] * t62;
        const Q t78 = t76 - t77;
        // complex block of 2
        const Q t79 = t75 + t78;
        const Q x6_21 = io.pairs(6, 21);
        const Q x4_14 = io.pairs(4, 14);
        // real block of 3
        const Q t80 = x6_21 + x4_14;
        const Q t81 = x6_21 - x4_14;
        const Q x9_5 = io.pairs(9, 5);
        const Q x40_34 = io.pairs(40, 34);
        // real block of 3
        const Q t82 = x9_5 + x40_34;
        const Q t83 = x9_5 - x40_34;
        const Q x11_12 = io.pairs(11, 12);
        // real block of 3
        const Q t84 = t80 + x11_12;
        const Q x29_22 = io.pairs(29, 22);
        // real block of 3
        const Q t85 = t82 + x29_22;
        // real block of 2
        const Q t86 = t84 + t85;
        // real block of 3
        const Q t87 = c[0] * t80;
        const Q t88 = x11_12 - t87;
        // real block of 3
        const Q t89 = c[0] * t82;
        const Q t90 = x29_22 - t89;
        // complex block of 2
        const Q t91 = t88 - t90;
        // real block of 3
        const Q t92 = c[1] * t81;
        // real block of 3
        const Q t93 = c[1] * t83;
        // complex block of 2
        const Q t94 = t92 + t93;
        const Q t95 = t93 - t92;
        const Q x7_51 = io.pairs(7, 51);
        const Q x25_8 = io.pairs(25, 8);
        // real block of 3
        const Q t96 = x7_51 + x25_8;
        const Q t97 = x7_51 - x25_8;
        const Q x38_27 = io.pairs(38, 27);
        const Q x17_33 = io.pairs(17, 33);
        // real block of 3
        const Q t98 = x38_27 + x17_33;
        const Q t99 = x38_27 - x17_33;
        const Q x37_50 = io.pairs(37, 50);
        const Q t100 = t98 + x37_50;
        const Q x43_18 = io.pairs(43, 18);
        // real block of 3
        const Q t101 = t96 + x43_18;
        // real block of 2
        const Q t102 = t100 + t101;
        // real block of 3
        const Q t103 = c[0] * t98;
        const Q t104 = x37_50 - t103;
        // real block of 3
        const Q t105 = c[0] * t96;
        const Q t106 = x43_18 - t105;
        // complex block of 2
        const Q t107 = t104 - t106;
        // real block of 3
        const Q t108 = c[1] * t99;
        // real block of 3
        const Q t109 = c[1] * t97;
        // complex block of 2
        const Q t110 = t108 + t109;
        const Q t111 = t109 - t108;
        // real block of 2
        const Q t112 = t100 - t101;
        // real block of 2
        const Q t113 = t84 - t85;
        // real block of 13, multiplier 4
        const Q t114 = c[2] * t112;
        const Q t115 = c[3] * t113;
        const Q t116 = t114 + t115;
        const Q t117 = c[3] * t112;
        const Q t118 = c[2] * t113;
        const Q t119 = t117 - t118;
        // real block of 2
        const Q t120 = t102 + t86;
        const Q x52_23 = io.pairs(52, 23);
        // real block of 13, multiplier 4
        const Q t121 = c[12] * t120;
        const Q t122 = x52_23 - t121;
        // real block of 2
        const Q t123 = t102 - t86;
        // complex block of 2
        const Q t124 = t104 + t106;
        // complex block of 2
        const Q t125 = t88 + t90;
        // complex block of 2
        const Q t126 = t124 + t125;
        const Q t127 = t124 - t125;
        const Q t128 = t110 + t94;
        const Q t129 = t94 - t110;
        // real block of 13, multiplier 4
        const Q t130 = c[8] * t127;
        const Q t131 = c[9] * t129;
        const Q t132 = t130 - t131;
        const Q t133 = c[8] * t129;
        const Q t134 = c[9] * t127;
        const Q t135 = t133 + t134;
        const Q t136 = c[10] * t126;
        const Q t137 = c[11] * t128;
        const Q t138 = t136 + t137;
        const Q t139 = c[10] * t128;
        const Q t140 = c[11] * t126;
        const Q t141 = t139 - t140;
        // complex block of 2
        const Q t142 = t107 - t95;
        const Q t143 = t111 + t91;
        const Q t144 = t107 + t95;
        const Q t145 = t111 - t91;
        // real block of 13, multiplier 4
        const Q t146 = c[4] * t145;
        const Q t147 = c[5] * t144;
        const Q t148 = t146 - t147;
        const Q t149 = c[6] * t142;
        const Q t150 = c[7] * t143;
        const Q t151 = t149 + t150;
        // complex block of 2
        const Q t152 = t151 - t148;
        // real block of 13, multiplier 4
        const Q t153 = c[5] * t145;
        const Q t154 = c[4] * t144;
        const Q t155 = t153 + t154;
        const Q t156 = c[6] * t143;
        const Q t157 = c[7] * t142;
        const Q t158 = t156 - t157;
        // complex block of 2
        const Q t159 = t155 + t158;
        // real block of 13, multiplier 4
        const Q t160 = x1_30 + t40;
        // real block of 13, multiplier 4
        const Q t161 = x52_23 + t120;
        // real block of 2
        const Q t162 = t160 + t161;
        const Q t163 = t160 - t161;
        const P t164 = part<0>(t162);
        const P t165 = part<1>(t162);
        // real block of 2
        const P t166 = t164 + t165;
        const P t167 = t164 - t165;
        // real block of 13, multiplier 4
        const Q t168 = c[13] * t43;
        // spectrum block of 2
        const Q t169 = t42 + t168;
        // complex block of 2
        const Q t170 = t61 + t55;
        const Q t171 = t52 - t58;
        // spectrum block of 3, multiplier 2
        const Q t172 = t171 + t169;
        const Q t173 = c[0] * t171;
        const Q t174 = t169 - t173;
        const Q t175 = c[1] * t170;
        const Q t176 = t174 - t175;
        const Q t177 = t174 + t175;
        // spectrum block of 2
        const Q t178 = t42 - t168;
        // complex block of 2
        const Q t179 = t61 - t55;
        const Q t180 = t58 + t52;
        // spectrum block of 3, multiplier 2
        const Q t181 = t178 - t180;
        const Q t182 = c[0] * t180;
        const Q t183 = t182 + t178;
        const Q t184 = c[1] * t179;
        const Q t185 = t183 - t184;
        const Q t186 = t183 + t184;
        // complex block of 2
        const Q t187 = t68 + t71;
        const Q t188 = t78 - t75;
        // spectrum block of 3, multiplier 2
        const Q t189 = t188 + t39;
        const Q t190 = c[0] * t188;
        const Q t191 = t39 - t190;
        const Q t192 = c[1] * t187;
        const Q t193 = t191 - t192;
        const Q t194 = t191 + t192;
        // mirrored skew block of 6
        const Q t195 = c[1] * t79;
        const Q t196 = c[0] * t72;
        const Q t197 = t195 + t196;
        // spectrum block of 3, multiplier 2
        const Q t198 = t197 + t36;
        const Q t199 = c[0] * t197;
        const Q t200 = t199 - t36;
        const Q t201 = c[14] * t72;
        const Q t202 = c[15] * t79;
        const Q t203 = t201 - t202;
        // real block of 13, multiplier 4
        const Q t204 = c[13] * t123;
        // spectrum block of 2
        const Q t205 = t122 + t204;
        // complex block of 2
        const Q t206 = t141 + t135;
        const Q t207 = t132 - t138;
        // spectrum block of 3, multiplier 2
        const Q t208 = t207 + t205;
        const Q t209 = c[0] * t207;
        const Q t210 = t205 - t209;
        const Q t211 = c[1] * t206;
        const Q t212 = t210 - t211;
        const Q t213 = t210 + t211;
        // spectrum block of 2
        const Q t214 = t122 - t204;
        // complex block of 2
        const Q t215 = t141 - t135;
        const Q t216 = t138 + t132;
        // spectrum block of 3, multiplier 2
        const Q t217 = t214 - t216;
        const Q t218 = c[0] * t216;
        const Q t219 = t218 + t214;
        const Q t220 = c[1] * t215;
        const Q t221 = t219 - t220;
        const Q t222 = t219 + t220;
        // complex block of 2
        const Q t223 = t148 + t151;
        const Q t224 = t158 - t155;
        // spectrum block of 3, multiplier 2
        const Q t225 = t224 + t119;
        const Q t226 = c[0] * t224;
        const Q t227 = t119 - t226;
        const Q t228 = c[1] * t223;
        const Q t229 = t227 - t228;
        const Q t230 = t227 + t228;
        // mirrored skew block of 6
        const Q t231 = c[1] * t159;
        const Q t232 = c[0] * t152;
        const Q t233 = t231 + t232;
        // spectrum block of 3, multiplier 2
        const Q t234 = t233 + t116;
        const Q t235 = c[0] * t233;
        const Q t236 = t235 - t116;
        const Q t237 = c[14] * t152;
        const Q t238 = c[15] * t159;
        const Q t239 = t237 - t238;
        // spectrum block of 3, multiplier 2
        const Q t240 = t200 + t203;
        // spectrum block of 3, multiplier 2
        const Q t241 = t236 + t239;
        const Q t242 = shuffled<0, 1, 4, 5>(t240, t198);
        const Q t243 = shuffled<0, 1, 4, 5>(t241, t234);
        // complex block of 2
        const Q t244 = t242 + t243;
        const Q t245 = shuffled<0, 1, 6, 7>(t243, t242);
        const Q t246 = shuffled<0, 1, 6, 7>(t242, t243);
        const Q t247 = t245 - t246;
        const Q t248 = shuffled<2, 3, 6, 7>(t240, t198);
        const Q t249 = shuffled<2, 3, 6, 7>(t241, t234);
        // complex block of 2
        const Q t250 = t248 + t249;
        const Q t251 = shuffled<0, 1, 6, 7>(t249, t248);
        const Q t252 = shuffled<0, 1, 6, 7>(t248, t249);
        const Q t253 = t251 - t252;
        const Q t254 = shuffled<0, 1, 4, 5>(t181, t185);
        const Q t255 = shuffled<0, 1, 4, 5>(t217, t221);
        // complex block of 2
        const Q t256 = t254 - t255;
        const Q t257 = shuffled<2, 3, 6, 7>(t181, t185);
        const Q t258 = shuffled<2, 3, 6, 7>(t217, t221);
        // complex block of 2
        const Q t259 = t257 - t258;
        // complex block of 2
        const Q t260 = t244 + t250;
        const Q t261 = shuffled<0, 1, 6, 7>(t250, t244);
        const Q t262 = shuffled<0, 1, 6, 7>(t244, t250);
        const Q t263 = t261 - t262;
        // complex block of 2
        const Q t264 = t256 + t253;
        const Q t265 = t247 - t259;
        const Q t266 = t256 - t253;
        const Q t267 = t247 + t259;
        // spectrum block of 3, multiplier 2
        const Q t268 = t200 - t203;
        // spectrum block of 3, multiplier 2
        const Q t269 = t236 - t239;
        const Q t270 = shuffled<0, 1, 4, 5>(t189, t268);
        const Q t271 = shuffled<0, 1, 4, 5>(t225, t269);
        // complex block of 2
        const Q t272 = t270 + t271;
        const Q t273 = shuffled<0, 1, 6, 7>(t270, t271);
        const Q t274 = shuffled<0, 1, 6, 7>(t271, t270);
        const Q t275 = t273 - t274;
        const Q t276 = shuffled<2, 3, 6, 7>(t189, t268);
        const Q t277 = shuffled<2, 3, 6, 7>(t225, t269);
        // complex block of 2
        const Q t278 = t276 + t277;
        const Q t279 = shuffled<0, 1, 6, 7>(t276, t277);
        const Q t280 = shuffled<0, 1, 6, 7>(t277, t276);
        const Q t281 = t279 - t280;
        const Q t282 = shuffled<0, 1, 4, 5>(t172, t186);
        const Q t283 = shuffled<0, 1, 4, 5>(t208, t222);
        // complex block of 2
        const Q t284 = t282 - t283;
        const Q t285 = shuffled<2, 3, 6, 7>(t172, t186);
        const Q t286 = shuffled<2, 3, 6, 7>(t208, t222);
        // complex block of 2
        const Q t287 = t285 - t286;
        // complex block of 2
        const Q t288 = t272 + t278;
        const Q t289 = shuffled<0, 1, 6, 7>(t272, t278);
        const Q t290 = shuffled<0, 1, 6, 7>(t278, t272);
        const Q t291 = t289 - t290;
        // complex block of 2
        const Q t292 = t284 + t281;
        const Q t293 = t275 - t287;
        const Q t294 = t284 - t281;
        const Q t295 = t275 + t287;
        // complex block of 2
        const Q t296 = t282 + t283;
        // complex block of 2
        const Q t297 = t285 + t286;
        // complex block of 2
        const Q t298 = t296 + t297;
        const Q t299 = t296 - t297;
        const Q t300 = shuffled<0, 1, 4, 5>(t177, t176);
        const Q t301 = shuffled<0, 1, 4, 5>(t213, t212);
        // complex block of 2
        const Q t302 = t300 + t301;
        const Q t303 = shuffled<2, 3, 6, 7>(t177, t176);
        const Q t304 = shuffled<2, 3, 6, 7>(t213, t212);
        // complex block of 2
        const Q t305 = t303 + t304;
        // complex block of 2
        const Q t306 = t302 + t305;
        const Q t307 = t302 - t305;
        const Q t308 = shuffled<0, 1, 4, 5>(t193, t194);
        const Q t309 = shuffled<0, 1, 4, 5>(t229, t230);
        // complex block of 2
        const Q t310 = t308 + t309;
        const Q t311 = shuffled<2, 3, 6, 7>(t193, t194);
        const Q t312 = shuffled<2, 3, 6, 7>(t229, t230);
        // complex block of 2
        const Q t313 = t311 + t312;
        // complex block of 2
        const Q t314 = t310 + t313;
        const Q t315 = shuffled<0, 1, 6, 7>(t310, t313);
        const Q t316 = shuffled<0, 1, 6, 7>(t313, t310);
        const Q t317 = t315 - t316;
        const Q t318 = shuffled<0, 1, 4, 5>(t314, t317);
        // complex block of 53
        const Q t319 = Q(c[20], c[20], c[21], c[21]) * t318;
        const Q t320 = shuffled<0, 1, 4, 5>(t306, t307);
        const Q t321 = Q(c[22], c[22], c[23], c[23]) * t320;
        const Q t322 = t319 + t321;
        const Q t323 = shuffled<2, 3, 6, 7>(t314, t317);
        const Q t324 = Q(c[24], c[24], c[25], c[25]) * t323;
        const Q t325 = shuffled<2, 3, 6, 7>(t306, t307);
        const Q t326 = Q(c[26], c[26], c[27], c[27]) * t325;
        const Q t327 = t324 + t326;
        // complex block of 2
        const Q t328 = t300 - t301;
        const Q t329 = shuffled<0, 1, 6, 7>(t311, t312);
        const Q t330 = shuffled<0, 1, 6, 7>(t312, t311);
        // complex block of 2
        const Q t331 = t329 - t330;
        // complex block of 2
        const Q t332 = t328 + t331;
        const Q t333 = t328 - t331;
        const Q t334 = shuffled<0, 1, 6, 7>(t308, t309);
        const Q t335 = shuffled<0, 1, 6, 7>(t309, t308);
        // complex block of 2
        const Q t336 = t334 - t335;
        // complex block of 2
        const Q t337 = t303 - t304;
        // complex block of 2
        const Q t338 = t336 - t337;
        const Q t339 = t336 + t337;
        // complex block of 2
        const Q t340 = t254 + t255;
        // complex block of 2
        const Q t341 = t257 + t258;
        // complex block of 2
        const Q t342 = t340 + t341;
        const Q t343 = t340 - t341;
        const P x0 = io.pair(0);
        // complex block of 53
        const P t344 = x0 + t166;
        io.pair(0, t344);
        const P t345 = c[70] * t166;
        const P t346 = x0 - t345;
        const Q t347 = Q(c[20], c[20], c[21], c[21]) * t320;
        const Q t348 = Q(c[22], c[22], c[23], c[23]) * t318;
        const Q t349 = t347 - t348;
        const Q t350 = Q(c[26], c[26], c[27], c[27]) * t323;
        const Q t351 = Q(c[24], c[24], c[25], c[25]) * t325;
        const Q t352 = t350 - t351;
        // real block of 3, multiplier 2
        const Q t353 = t352 + t349;
        const Q t354 = t352 - t349;
        const Q t355 = shuffled<0, 1, 4, 5>(t298, t299);
        // complex block of 53
        const Q t356 = Q(c[28], c[28], c[29], c[29]) * t355;
        const Q t357 = shuffled<0, 1, 4, 5>(t288, t291);
        const Q t358 = Q(-c[30], -c[30], c[31], c[31]) * t357;
        const Q t359 = t356 + t358;
        // real block of 3, multiplier 2
        const Q t360 = t353 + t359;
        const Q t361 = c[0] * t353;
        const Q t362 = t359 - t361;
        const Q t363 = shuffled<2, 3, 6, 7>(t298, t299);
        // complex block of 53
        const Q t364 = Q(c[32], c[32], c[33], c[33]) * t363;
        const Q t365 = shuffled<2, 3, 6, 7>(t288, t291);
        const Q t366 = Q(c[34], c[34], c[35], c[35]) * t365;
        const Q t367 = t364 + t366;
        const Q t368 = shuffled<0, 1, 4, 5>(t342, t343);
        const Q t369 = Q(c[36], c[36], c[37], c[37]) * t368;
        const Q t370 = shuffled<0, 1, 4, 5>(t260, t263);
        const Q t371 = Q(c[38], c[38], c[39], c[39]) * t370;
        const Q t372 = t369 + t371;
        const Q t373 = shuffled<2, 3, 6, 7>(t342, t343);
        const Q t374 = Q(c[40], c[40], c[41], c[41]) * t373;
        const Q t375 = shuffled<2, 3, 6, 7>(t260, t263);
        const Q t376 = Q(c[42], c[42], -c[43], -c[43]) * t375;
        const Q t377 = t374 + t376;
        // real block of 3, multiplier 2
        const Q t378 = t377 + t367;
        const Q t379 = t378 + t372;
        const Q t380 = t377 - t367;
        const Q t381 = c[0] * t378;
        const Q t382 = t372 - t381;
        // complex block of 2
        const Q t383 = t362 + t382;
        const Q t384 = t362 - t382;
        // real block of 3, multiplier 2
        const Q t385 = c[1] * t354;
        // real block of 3, multiplier 2
        const Q t386 = c[1] * t380;
        // complex block of 2
        const Q t387 = t385 + t386;
        const Q t388 = t385 - t386;
        // spectrum block of 13, multiplier 4
        const Q t389 = c[8] * t384;
        const Q t390 = c[9] * t388;
        const Q t391 = t389 - t390;
        const Q t392 = c[11] * t387;
        const Q t393 = c[10] * t383;
        const Q t394 = t392 - t393;
        // real block of 2
        const Q t395 = t360 + t379;
        // complex block of 53
        const P t396 = c[71] * t167;
        const Q t397 = joined(t346, t396);
        // spectrum block of 13, multiplier 4
        const Q t398 = c[12] * t395;
        const Q t399 = t397 - t398;
        // real block of 2
        const Q t400 = t360 - t379;
        const Q t401 = shuffled<0, 1, 0, 1>(t333);
        const Q t402 = shuffled<1, 0, 3, 2>(t401);
        // complex block of 53
        const Q t403 = Q(c[44], -c[44], c[45], c[45]) * t402;
        const Q t404 = shuffled<0, 1, 0, 1>(t339);
        const Q t405 = shuffled<1, 0, 3, 2>(t404);
        const Q t406 = Q(-c[45], c[45], c[44], c[44]) * t405;
        const Q t407 = t403 + t406;
        const Q t408 = shuffled<0, 1, 4, 5>(t338, t332);
        const Q t409 = shuffled<1, 0, 3, 2>(t408);
        const Q t410 = Q(c[46], -c[46], c[46], c[46]) * t409;
        const Q t411 = shuffled<2, 3, 0, 1>(t409);
        const Q t412 = Q(-c[47], c[47], c[47], c[47]) * t411;
        const Q t413 = t410 + t412;
        // real block of 2
        const Q t414 = t413 + t407;
        const Q t415 = flipped<0, 0, 0, 1>(t413);
        const Q t416 = flipped<0, 0, 0, 1>(t407);
        const Q t417 = t415 - t416;
        const Q t418 = shuffled<2, 3, 6, 7>(t333, t339);
        const Q t419 = shuffled<1, 0, 3, 2>(t418);
        // complex block of 53
        const Q t420 = Q(c[48], c[48], -c[48], c[48]) * t419;
        const Q t421 = shuffled<2, 3, 0, 1>(t419);
        const Q t422 = Q(c[49], c[49], c[49], -c[49]) * t421;
        const Q t423 = t420 + t422;
        const Q t424 = shuffled<2, 3, 2, 3>(t332);
        const Q t425 = shuffled<1, 0, 3, 2>(t424);
        const Q t426 = Q(c[50], c[50], -c[51], c[51]) * t425;
        const Q t427 = shuffled<2, 3, 2, 3>(t338);
        const Q t428 = shuffled<1, 0, 3, 2>(t427);
        const Q t429 = Q(c[51], c[51], c[50], -c[50]) * t428;
        const Q t430 = t426 + t429;
        // real block of 2
        const Q t431 = t423 + t430;
        const Q t432 = flipped<1, 0, 0, 0>(t423);
        const Q t433 = flipped<1, 0, 0, 0>(t430);
        const Q t434 = t432 - t433;
        const Q t435 = shuffled<2, 3, 2, 3>(t294);
        const Q t436 = shuffled<1, 0, 3, 2>(t435);
        // complex block of 53
        const Q t437 = Q(c[52], c[52], -c[53], c[53]) * t436;
        const Q t438 = shuffled<2, 3, 2, 3>(t295);
        const Q t439 = shuffled<1, 0, 3, 2>(t438);
        const Q t440 = Q(c[53], c[53], c[52], -c[52]) * t439;
        const Q t441 = t437 + t440;
        const Q t442 = shuffled<2, 3, 6, 7>(t266, t265);
        const Q t443 = shuffled<1, 0, 3, 2>(t442);
        const Q t444 = Q(c[54], c[54], -c[55], c[55]) * t443;
        const Q t445 = shuffled<2, 3, 6, 7>(t267, t264);
        const Q t446 = shuffled<1, 0, 3, 2>(t445);
        const Q t447 = Q(c[56], c[56], c[57], -c[57]) * t446;
        const Q t448 = t444 + t447;
        const Q t449 = shuffled<2, 3, 0, 1>(t446);
        const Q t450 = Q(c[55], c[55], -c[54], c[54]) * t449;
        const Q t451 = shuffled<2, 3, 0, 1>(t443);
        const Q t452 = Q(c[57], c[57], c[56], -c[56]) * t451;
        const Q t453 = t450 + t452;
        const Q t454 = shuffled<2, 3, 6, 7>(t293, t292);
        const Q t455 = shuffled<1, 0, 3, 2>(t454);
        const Q t456 = Q(c[58], -c[58], c[58], c[58]) * t455;
        const Q t457 = shuffled<2, 3, 0, 1>(t455);
        const Q t458 = Q(-c[59], c[59], c[59], c[59]) * t457;
        const Q t459 = t456 + t458;
        const Q t460 = flipped<0, 1, 0, 0>(t441);
        const Q t461 = flipped<0, 0, 0, 1>(t459);
        // real block of 2
        const Q t462 = t460 + t461;
        const Q t463 = flipped<0, 0, 0, 1>(t414);
        // real block of 2
        const Q t464 = t462 + t463;
        const Q t465 = flipped<0, 0, 0, 1>(t462);
        const Q t466 = t414 - t465;
        const Q t467 = flipped<1, 0, 1, 1>(t461);
        // real block of 2
        const Q t468 = t441 + t467;
        const Q t469 = flipped<0, 0, 1, 1>(t448);
        // real block of 2
        const Q t470 = t453 + t469;
        const Q t471 = flipped<0, 1, 0, 0>(t468);
        const Q t472 = flipped<1, 0, 0, 0>(t470);
        // complex block of 3
        const Q t473 = t471 + t472;
        const Q t474 = flipped<1, 0, 1, 1>(t472);
        const Q t475 = t468 + t474;
        const Q t476 = flipped<0, 1, 0, 0>(t453);
        const Q t477 = flipped<1, 0, 1, 1>(t469);
        // real block of 2
        const Q t478 = t476 + t477;
        const Q t479 = flipped<1, 0, 0, 0>(t431);
        // real block of 2
        const Q t480 = t479 + t478;
        const Q t481 = flipped<1, 0, 0, 0>(t478);
        const Q t482 = t431 - t481;
        // complex block of 3
        const Q t483 = t417 + t434;
        const Q t484 = t417 - t434;
        const Q t485 = shuffled<0, 1, 0, 1>(t294);
        const Q t486 = shuffled<1, 0, 3, 2>(t485);
        // complex block of 53
        const Q t487 = Q(c[60], c[60], -c[61], c[61]) * t486;
        const Q t488 = shuffled<0, 1, 0, 1>(t295);
        const Q t489 = shuffled<1, 0, 3, 2>(t488);
        const Q t490 = Q(c[61], c[61], c[60], -c[60]) * t489;
        const Q t491 = t487 + t490;
        const Q t492 = shuffled<0, 1, 4, 5>(t292, t293);
        const Q t493 = shuffled<1, 0, 3, 2>(t492);
        const Q t494 = Q(c[62], c[62], -c[62], c[62]) * t493;
        const Q t495 = shuffled<2, 3, 0, 1>(t493);
        const Q t496 = Q(c[63], c[63], c[63], -c[63]) * t495;
        const Q t497 = t494 + t496;
        // real block of 2
        const Q t498 = t497 + t491;
        const Q t499 = flipped<0, 1, 0, 0>(t497);
        const Q t500 = flipped<0, 1, 0, 0>(t491);
        const Q t501 = t499 - t500;
        const Q t502 = shuffled<0, 1, 4, 5>(t267, t264);
        const Q t503 = shuffled<1, 0, 3, 2>(t502);
        // complex block of 53
        const Q t504 = Q(-c[64], c[64], -c[65], c[65]) * t503;
        const Q t505 = shuffled<0, 1, 4, 5>(t266, t265);
        const Q t506 = shuffled<1, 0, 3, 2>(t505);
        const Q t507 = Q(c[66], -c[66], c[67], -c[67]) * t506;
        const Q t508 = t504 + t507;
        const Q t509 = shuffled<2, 3, 0, 1>(t506);
        const Q t510 = Q(c[65], c[65], c[64], c[64]) * t509;
        const Q t511 = shuffled<2, 3, 0, 1>(t503);
        const Q t512 = Q(c[67], c[67], c[66], c[66]) * t511;
        const Q t513 = t510 + t512;
        const Q t514 = flipped<0, 0, 1, 0>(t513);
        const Q t515 = flipped<0, 1, 0, 0>(t508);
        // real block of 2
        const Q t516 = t514 + t515;
        const Q t517 = flipped<1, 1, 0, 1>(t515);
        const Q t518 = t513 + t517;
        const Q t519 = flipped<0, 1, 0, 0>(t498);
        const Q t520 = flipped<1, 0, 0, 0>(t516);
        // real block of 2
        const Q t521 = t519 + t520;
        // real block of 3
        const Q t522 = t464 + t480;
        const Q t523 = t522 + t521;
        const Q t524 = t464 - t480;
        const Q t525 = c[0] * t522;
        const Q t526 = t521 - t525;
        const Q t527 = flipped<1, 0, 1, 1>(t520);
        // real block of 2
        const Q t528 = t498 + t527;
        const Q t529 = flipped<1, 0, 0, 0>(t482);
        const Q t530 = flipped<0, 0, 0, 1>(t466);
        // real block of 3
        const Q t531 = t529 + t530;
        const Q t532 = flipped<0, 1, 0, 0>(t528);
        const Q t533 = t531 + t532;
        const Q t534 = Q(c[0], -c[0], c[0], c[0]) * t531;
        const Q t535 = t528 - t534;
        // complex block of 3
        const Q t536 = t483 + t501;
        const Q t537 = flipped<0, 1, 1, 0>(t518);
        const Q t538 = t473 + t537;
        const Q t539 = c[0] * t483;
        const Q t540 = t501 - t539;
        const Q t541 = Q(c[1], -c[1], c[1], c[1]) * t475;
        const Q t542 = t540 + t541;
        const Q t543 = t540 - t541;
        const Q t544 = Q(-c[0], c[0], c[0], -c[0]) * t473;
        const Q t545 = t518 + t544;
        const Q t546 = Q(-c[1], c[1], c[1], -c[1]) * t484;
        const Q t547 = t545 + t546;
        const Q t548 = flipped<0, 1, 1, 0>(t545);
        const Q t549 = flipped<1, 0, 0, 1>(t546);
        const Q t550 = t548 + t549;
        const Q t551 = flipped<1, 1, 1, 0>(t529);
        // real block of 3
        const Q t552 = t466 + t551;
        const Q t553 = shuffled<2, 3, 0, 1>(t163);
        const Q t554 = shuffled<1, 0, 3, 2>(t553);
        // complex block of 53
        const Q t555 = Q(c[68], -c[68], c[68], c[68]) * t554;
        const Q t556 = shuffled<1, 0, 3, 2>(t163);
        const Q t557 = Q(-c[69], c[69], c[69], c[69]) * t556;
        const Q t558 = t555 + t557;
        const Q t559 = Q(c[34], c[34], c[35], c[35]) * t363;
        const Q t560 = Q(c[32], c[32], c[33], c[33]) * t365;
        const Q t561 = t559 - t560;
        const Q t562 = Q(c[40], c[40], c[41], c[41]) * t375;
        const Q t563 = Q(-c[42], -c[42], c[43], c[43]) * t373;
        const Q t564 = t562 + t563;
        // skew block of 6
        const Q t565 = c[1] * t561;
        const Q t566 = Q(-c[0], -c[0], c[0], c[0]) * t322;
        const Q t567 = t565 + t566;
        const Q t568 = c[0] * t327;
        const Q t569 = Q(-c[1], -c[1], c[1], c[1]) * t564;
        const Q t570 = t568 + t569;
        // complex block of 3
        const Q t571 = t567 + t570;
        const Q t572 = shuffled<0, 1, 6, 7>(t567, t570);
        const Q t573 = shuffled<0, 1, 6, 7>(t570, t567);
        const Q t574 = t572 - t573;
        // skew block of 6
        const Q t575 = c[0] * t561;
        const Q t576 = Q(c[1], c[1], -c[1], -c[1]) * t322;
        const Q t577 = t575 + t576;
        const Q t578 = c[1] * t327;
        const Q t579 = Q(c[0], c[0], -c[0], -c[0]) * t564;
        const Q t580 = t578 + t579;
        // complex block of 3
        const Q t581 = t577 + t580;
        const Q t582 = shuffled<0, 1, 6, 7>(t580, t577);
        const Q t583 = shuffled<0, 1, 6, 7>(t577, t580);
        const Q t584 = t582 - t583;
        // complex block of 53
        const Q t585 = Q(c[38], c[38], c[39], c[39]) * t368;
        const Q t586 = Q(c[36], c[36], c[37], c[37]) * t370;
        const Q t587 = t585 - t586;
        const Q t588 = shuffled<0, 1, 6, 7>(t357, t355);
        const Q t589 = Q(c[28], c[28], c[31], c[31]) * t588;
        const Q t590 = shuffled<0, 1, 6, 7>(t355, t357);
        const Q t591 = Q(c[30], c[30], -c[29], -c[29]) * t590;
        const Q t592 = t589 + t591;
        // complex block of 3
        const Q t593 = t571 + t592;
        const Q t594 = shuffled<0, 1, 6, 7>(t587, t581);
        const Q t595 = shuffled<0, 1, 6, 7>(t581, t587);
        const Q t596 = t594 - t595;
        // spectrum block of 13, multiplier 4
        const Q t597 = c[4] * t593;
        const Q t598 = Q(c[5], c[5], -c[5], -c[5]) * t596;
        const Q t599 = t597 + t598;
        const Q t600 = Q(-c[4], -c[4], c[4], c[4]) * t596;
        const Q t601 = c[5] * t593;
        const Q t602 = t600 + t601;
        // complex block of 3
        const Q t603 = Q(-c[0], -c[0], c[0], c[0]) * t571;
        const Q t604 = flipped<0, 0, 1, 1>(t592);
        const Q t605 = t603 + t604;
        const Q t606 = c[1] * t584;
        const Q t607 = t605 + t606;
        const Q t608 = t605 - t606;
        const Q t609 = c[0] * t581;
        const Q t610 = t587 + t609;
        const Q t611 = Q(-c[1], -c[1], c[1], c[1]) * t574;
        const Q t612 = t610 + t611;
        const Q t613 = shuffled<0, 1, 6, 7>(t610, t611);
        const Q t614 = shuffled<0, 1, 6, 7>(t611, t610);
        const Q t615 = t613 - t614;
        const P t616 = part<0>(t558);
        const P t617 = part<0>(t523);
        // complex block of 13, multiplier 4
        const P t618 = t616 + t617;
        const P t619 = part<1>(t558);
        const P t620 = flipped<1, 0>(t619);
        const P t621 = part<1>(t523);
        const P t622 = t620 + t621;
        const Q t623 = shuffled<2, 3, 4, 5>(t543, t550);
        const Q t624 = Q(c[4], c[4], c[5], c[5]) * t623;
        const Q t625 = shuffled<2, 3, 4, 5>(t550, t543);
        const Q t626 = Q(c[5], c[5], c[4], c[4]) * t625;
        const Q t627 = t624 - t626;
        const Q t628 = shuffled<2, 3, 4, 5>(t547, t542);
        const Q t629 = Q(c[6], -c[6], -c[7], c[7]) * t628;
        const Q t630 = shuffled<2, 3, 4, 5>(t542, t547);
        const Q t631 = Q(c[7], c[7], c[6], c[6]) * t630;
        const Q t632 = t629 + t631;
        const Q t633 = flipped<0, 0, 0, 1>(t632);
        // complex block of 3
        const Q t634 = t627 + t633;
        const Q t635 = flipped<0, 0, 0, 1>(t627);
        const Q t636 = t632 - t635;
        const Q t637 = shuffled<2, 3, 4, 5>(t538, t536);
        // complex block of 13, multiplier 4
        const Q t638 = Q(c[2], c[2], c[3], c[3]) * t637;
        const Q t639 = shuffled<2, 3, 4, 5>(t536, t538);
        const Q t640 = Q(c[3], c[3], c[2], c[2]) * t639;
        const Q t641 = t638 - t640;
        // complex block of 3
        const Q t642 = t634 + t641;
        const Q t643 = c[0] * t634;
        const Q t644 = t641 - t643;
        // complex block of 13, multiplier 4
        const Q t645 = Q(c[8], -c[8], c[8], c[8]) * t535;
        // real block of 3
        const Q t646 = c[1] * t552;
        // complex block of 13, multiplier 4
        const Q t647 = Q(c[9], c[9], c[9], -c[9]) * t646;
        const Q t648 = t645 + t647;
        const Q t649 = c[13] * t533;
        // spectrum block of 3
        const Q t650 = t648 + t649;
        // real block of 3
        const Q t651 = c[1] * t524;
        const P t652 = part<0>(t651);
        // complex block of 13, multiplier 4
        const P t653 = c[11] * t652;
        const Q t654 = joined(t653, t619);
        const Q t655 = shuffled<0, 1, 6, 7>(t526, t523);
        const Q t656 = Q(c[10], c[10], c[12], -c[12]) * t655;
        const Q t657 = t654 + t656;
        const P t658 = part<1>(t526);
        const P t659 = c[10] * t658;
        const Q t660 = joined(t616, t659);
        const Q t661 = shuffled<0, 1, 6, 7>(t523, t651);
        const Q t662 = Q(-c[12], -c[12], c[11], c[11]) * t661;
        const Q t663 = t660 + t662;
        const Q t664 = flipped<1, 1, 0, 0>(t657);
        const Q t665 = flipped<0, 0, 0, 1>(t663);
        // spectrum block of 3
        const Q t666 = t664 + t665;
        const Q t667 = c[16] * t651;
        const Q t668 = c[17] * t526;
        const Q t669 = t667 - t668;
        // spectrum block of 3
        const Q t670 = c[18] * t646;
        const Q t671 = Q(-c[19], c[19], -c[19], c[19]) * t535;
        const Q t672 = t670 + t671;
        const Q t673 = shuffled<0, 1, 6, 7>(t664, t665);
        // spectrum block of 3
        const Q t674 = Q(-c[0], -c[0], c[0], -c[0]) * t673;
        const Q t675 = shuffled<0, 1, 6, 7>(t665, t664);
        const Q t676 = flipped<0, 0, 1, 0>(t675);
        const Q t677 = t674 + t676;
        const Q t678 = t677 - t669;
        const Q t679 = t677 + t669;
        // spectrum block of 3
        const Q t680 = c[0] * t648;
        const Q t681 = t649 - t680;
        const Q t682 = flipped<0, 0, 0, 1>(t672);
        const Q t683 = t681 + t682;
        const Q t684 = t681 - t682;
        const Q t685 = flipped<0, 0, 1, 0>(t666);
        // spectrum block of 2
        const Q t686 = t685 + t650;
        const Q t687 = flipped<0, 0, 1, 0>(t650);
        const Q t688 = t666 - t687;
        const Q t689 = shuffled<0, 1, 6, 7>(t637, t639);
        // complex block of 13, multiplier 4
        const Q t690 = c[3] * t689;
        const Q t691 = shuffled<0, 1, 6, 7>(t639, t637);
        const Q t692 = c[2] * t691;
        const Q t693 = t690 + t692;
        const Q t694 = shuffled<0, 1, 6, 7>(t628, t623);
        const Q t695 = Q(c[7], c[7], c[4], c[4]) * t694;
        const Q t696 = shuffled<0, 1, 6, 7>(t630, t625);
        const Q t697 = Q(-c[6], c[6], c[5], c[5]) * t696;
        const Q t698 = t695 + t697;
        const Q t699 = shuffled<0, 1, 6, 7>(t623, t628);
        const Q t700 = Q(c[5], c[5], c[6], c[6]) * t699;
        const Q t701 = shuffled<0, 1, 6, 7>(t625, t630);
        const Q t702 = Q(c[4], c[4], c[7], -c[7]) * t701;
        const Q t703 = t700 + t702;
        const Q t704 = flipped<1, 0, 0, 0>(t698);
        // complex block of 3
        const Q t705 = t703 + t704;
        const Q t706 = flipped<1, 0, 0, 0>(t703);
        const Q t707 = t698 - t706;
        const Q t708 = shuffled<0, 1, 6, 7>(t705, t693);
        const Q t709 = shuffled<0, 1, 6, 7>(t693, t705);
        const Q t710 = t708 - t709;
        const Q t711 = c[0] * t705;
        const Q t712 = t711 + t693;
        // spectrum block of 13, multiplier 4
        const Q t713 = c[3] * t608;
        const Q t714 = c[2] * t615;
        const Q t715 = t713 + t714;
        const Q t716 = c[6] * t612;
        const Q t717 = Q(c[7], c[7], -c[7], -c[7]) * t607;
        const Q t718 = t716 + t717;
        // complex block of 3
        const Q t719 = t718 + t599;
        const Q t720 = shuffled<0, 1, 6, 7>(t599, t718);
        const Q t721 = shuffled<0, 1, 6, 7>(t718, t599);
        const Q t722 = t720 - t721;
        const Q t723 = flipped<1, 1, 0, 0>(t719);
        const Q t724 = t723 + t715;
        const Q t725 = Q(c[0], c[0], -c[0], -c[0]) * t719;
        const Q t726 = t715 + t725;
        // spectrum block of 13, multiplier 4
        const Q t727 = c[2] * t608;
        const Q t728 = c[3] * t615;
        const Q t729 = t727 - t728;
        const Q t730 = Q(-c[7], -c[7], c[7], c[7]) * t612;
        const Q t731 = c[6] * t607;
        const Q t732 = t730 + t731;
        const Q t733 = flipped<0, 0, 1, 1>(t732);
        // complex block of 3
        const Q t734 = t602 + t733;
        const Q t735 = t602 - t733;
        const Q t736 = flipped<1, 1, 0, 0>(t734);
        const Q t737 = t736 + t729;
        const Q t738 = Q(c[0], c[0], -c[0], -c[0]) * t734;
        const Q t739 = t729 + t738;
        // spectrum block of 3
        const Q t740 = t394 + t399;
        // spectrum block of 13, multiplier 4
        const Q t741 = c[13] * t400;
        // spectrum block of 3
        const Q t742 = t391 + t741;
        // spectrum block of 2
        const Q t743 = t740 + t742;
        const Q t744 = t740 - t742;
        // spectrum block of 3
        const Q t745 = c[0] * t394;
        const Q t746 = t399 - t745;
        const Q t747 = c[16] * t387;
        const Q t748 = c[17] * t383;
        const Q t749 = t747 + t748;
        // spectrum block of 3
        const Q t750 = c[0] * t391;
        const Q t751 = t741 - t750;
        const Q t752 = c[18] * t388;
        const Q t753 = c[19] * t384;
        const Q t754 = t752 + t753;
        // spectrum block of 3
        const Q t755 = t746 + t749;
        // spectrum block of 3
        const Q t756 = t751 - t754;
        // spectrum block of 2
        const Q t757 = t755 + t756;
        const Q t758 = t755 - t756;
        // spectrum block of 3
        const Q t759 = t746 - t749;
        // spectrum block of 3
        const Q t760 = t751 + t754;
        // spectrum block of 2
        const Q t761 = t759 + t760;
        const Q t762 = t759 - t760;
        // spectrum block of 13, multiplier 4
        const Q t763 = t397 + t395;
        const Q t764 = flipped<1, 1, 0, 0>(t712);
        // complex block of 3
        const Q t765 = Q(c[1], c[1], c[1], -c[1]) * t636;
        const Q t766 = t764 + t765;
        // spectrum block of 2
        const Q t767 = t678 - t683;
        // spectrum block of 2
        const Q t768 = t767 + t766;
        const Q t769 = t767 - t766;
        // complex block of 3
        const Q t770 = c[1] * t722;
        const Q t771 = t739 + t770;
        // spectrum block of 2
        const Q t772 = t758 + t771;
        const Q t773 = t758 - t771;
        const Q t774 = shuffled<0, 1, 4, 5>(t772, t773);
        const Q t775 = shuffled<2, 3, 6, 7>(t772, t773);
        // spectrum block of 2
        const Q t776 = t774 + t775;
        const Q t777 = shuffled<2, 3, 6, 7>(t768, t769);
        // spectrum block of 2
        const Q t778 = t776 + t777;
        io.pairs(49, 13, t778);
        const Q t779 = t776 - t777;
        io.pairs(4, 40, t779);
        // spectrum block of 2
        const Q t780 = t774 - t775;
        const Q t781 = shuffled<0, 1, 4, 5>(t768, t769);
        // spectrum block of 2
        const Q t782 = t780 - t781;
        io.pairs(14, 34, t782);
        const Q t783 = t780 + t781;
        io.pairs(39, 19, t783);
        // complex block of 3
        const Q t784 = Q(-c[1], c[1], c[1], c[1]) * t707;
        const Q t785 = t644 - t784;
        // spectrum block of 2
        const Q t786 = t678 + t683;
        // spectrum block of 2
        const Q t787 = t786 + t785;
        const Q t788 = t786 - t785;
        const Q t789 = flipped<0, 0, 1, 0>(t688);
        // spectrum block of 2
        const Q t790 = t789 + t710;
        const Q t791 = flipped<0, 0, 1, 0>(t710);
        const Q t792 = t688 - t791;
        // complex block of 3
        const Q t793 = Q(-c[1], -c[1], c[1], c[1]) * t735;
        const Q t794 = t726 + t793;
        // spectrum block of 2
        const Q t795 = t757 + t794;
        const Q t796 = t757 - t794;
        // spectrum block of 2
        const Q t797 = t744 + t737;
        const Q t798 = t744 - t737;
        const Q t799 = shuffled<0, 1, 4, 5>(t796, t797);
        const Q t800 = shuffled<2, 3, 6, 7>(t796, t797);
        // spectrum block of 2
        const Q t801 = t799 + t800;
        const Q t802 = shuffled<2, 3, 6, 7>(t788, t790);
        // spectrum block of 2
        const Q t803 = t801 + t802;
        io.pairs(36, 42, t803);
        const Q t804 = t801 - t802;
        io.pairs(17, 11, t804);
        // spectrum block of 2
        const Q t805 = t799 - t800;
        const Q t806 = shuffled<0, 1, 4, 5>(t788, t790);
        // spectrum block of 2
        const Q t807 = t805 - t806;
        io.pairs(33, 12, t807);
        const Q t808 = t805 + t806;
        io.pairs(20, 41, t808);
        const Q t809 = shuffled<0, 1, 4, 5>(t798, t795);
        const Q t810 = shuffled<2, 3, 6, 7>(t798, t795);
        // spectrum block of 2
        const Q t811 = t809 + t810;
        const Q t812 = shuffled<2, 3, 6, 7>(t792, t787);
        const Q t813 = flipped<1, 0, 0, 0>(t812);
        // spectrum block of 2
        const Q t814 = t811 + t813;
        io.pairs(24, 28, t814);
        const Q t815 = t811 - t813;
        io.pairs(29, 25, t815);
        // spectrum block of 2
        const Q t816 = t809 - t810;
        const Q t817 = shuffled<0, 1, 4, 5>(t792, t787);
        // spectrum block of 2
        const Q t818 = t816 - t817;
        io.pairs(22, 8, t818);
        const Q t819 = t816 + t817;
        io.pairs(31, 45, t819);
        const Q t820 = flipped<0, 0, 1, 1>(t765);
        // complex block of 3
        const Q t821 = t712 + t820;
        // spectrum block of 2
        const Q t822 = t679 - t684;
        const Q t823 = flipped<1, 1, 0, 0>(t821);
        // spectrum block of 2
        const Q t824 = t822 + t823;
        const Q t825 = t822 - t823;
        // complex block of 3
        const Q t826 = t644 + t784;
        // spectrum block of 2
        const Q t827 = t679 + t684;
        // spectrum block of 2
        const Q t828 = t827 + t826;
        const Q t829 = t827 - t826;
        // complex block of 3
        const Q t830 = t739 - t770;
        // spectrum block of 2
        const Q t831 = t762 + t830;
        const Q t832 = t762 - t830;
        // complex block of 3
        const Q t833 = t726 - t793;
        // spectrum block of 2
        const Q t834 = t761 + t833;
        const Q t835 = t761 - t833;
        const Q t836 = shuffled<0, 1, 4, 5>(t831, t834);
        const Q t837 = shuffled<2, 3, 6, 7>(t831, t834);
        // spectrum block of 2
        const Q t838 = t836 + t837;
        const Q t839 = shuffled<2, 3, 6, 7>(t824, t828);
        // spectrum block of 2
        const Q t840 = t838 + t839;
        io.pairs(47, 46, t840);
        const Q t841 = t838 - t839;
        io.pairs(6, 7, t841);
        // spectrum block of 2
        const Q t842 = t836 - t837;
        const Q t843 = shuffled<0, 1, 4, 5>(t824, t828);
        // spectrum block of 2
        const Q t844 = t842 - t843;
        io.pairs(21, 51, t844);
        const Q t845 = t842 + t843;
        io.pairs(32, 2, t845);
        const Q t846 = shuffled<0, 1, 4, 5>(t835, t832);
        const Q t847 = shuffled<2, 3, 6, 7>(t835, t832);
        // spectrum block of 2
        const Q t848 = t846 + t847;
        const Q t849 = shuffled<2, 3, 6, 7>(t829, t825);
        // spectrum block of 2
        const Q t850 = t848 + t849;
        io.pairs(15, 44, t850);
        const Q t851 = t848 - t849;
        io.pairs(38, 9, t851);
        // spectrum block of 2
        const Q t852 = t846 - t847;
        const Q t853 = shuffled<0, 1, 4, 5>(t829, t825);
        // spectrum block of 2
        const Q t854 = t852 - t853;
        io.pairs(27, 5, t854);
        const Q t855 = t852 + t853;
        io.pairs(26, 48, t855);
        // spectrum block of 2
        const Q t856 = t686 + t642;
        // spectrum block of 2
        const Q t857 = t743 + t724;
        const Q t858 = shuffled<0, 1, 4, 5>(t763, t857);
        const Q t859 = shuffled<2, 3, 6, 7>(t763, t857);
        // spectrum block of 2
        const Q t860 = t858 + t859;
        const Q t861 = t858 - t859;
        const P t862 = part<1>(t856);
        const Q t863 = joined(t622, t862);
        // spectrum block of 2
        const Q t864 = t860 + t863;
        io.pairs(1, 10, t864);
        const Q t865 = t860 - t863;
        io.pairs(52, 43, t865);
        const P t866 = part<0>(t856);
        const Q t867 = joined(t618, t866);
        // spectrum block of 2
        const Q t868 = t861 - t867;
        io.pairs(23, 18, t868);
        const Q t869 = t861 + t867;
        io.pairs(30, 35, t869);
        // spectrum block of 2
        const Q t870 = t686 - t642;
        // spectrum block of 2
        const Q t871 = t743 - t724;
        const P t872 = part<0>(t871);
        const P t873 = part<1>(t871);
        // spectrum block of 2
        const P t874 = t872 + t873;
        const P t875 = t872 - t873;
        const Q t876 = joined(t874, t875);
        const Q t877 = shuffled<2, 3, 0, 1>(t870);
        const Q t878 = flipped<0, 0, 1, 1>(t877);
        // spectrum block of 2
        const Q t879 = t876 + t878;
        io.pairs(16, 50, t879);
        const Q t880 = t876 - t878;
        io.pairs(37, 3, t880);
    }
};

}  // namespace zulg
