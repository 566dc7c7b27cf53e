// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 47.
// Complex DFT of 47 points, Rader block; two lines of a stage to a register.
// 373 sums, 323 differences, 530 products of registers, which do the 4822 steps of the graph, those with
// `scale` included; 221 shuffles, 51 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<47> {
    static constexpr int steps = 4822;  // with `scale`
    static constexpr double inverseRoot = 0.14586499149789456;  // 1/sqrt(47), for `scale`
    static constexpr double constants[] = {
        0.6548607339452851,  // c[0]: -cos 2 pi 18/11
        0.9594929736144974,  // c[1]: -cos 2 pi 6/11
        0.14231483827328514,  // c[2]: -cos 2 pi 8/11
        0.8412535328311812,  // c[3]: cos 2 pi 12/11
        0.41541501300188644,  // c[4]: cos 2 pi 2/11
        0.7557495743542583,  // c[5]: -sin 2 pi 18/11
        0.28173255684142967,  // c[6]: -sin 2 pi 6/11
        0.9898214418809327,  // c[7]: -sin 2 pi 8/11
        0.9096319953545183,  // c[8]: sin 2 pi 2/11
        0.5406408174555976,  // c[9]: sin 2 pi 12/11
        0.30901699437494745,  // c[10]: cos 2 pi 1/5
        0.8090169943749475,  // c[11]: -cos 2 pi 3/5
        0.9510565162951535,  // c[12]: sin 2 pi 1/5
        0.5877852522924731,  // c[13]: -sin 2 pi 3/5
        0.17418154463549565,  // c[14]: -P[1] of 23
        0.39967916400094217,  // c[15]: -Q[1] of 23
        0.1863662746045921,  // c[16]: P[7] of 23
        0.3941449686576057,  // c[17]: Q[7] of 23
        0.2936565344532715,  // c[18]: P[3] of 23
        0.3222553093449257,  // c[19]: -Q[3] of 23
        0.4166015292602189,  // c[20]: -P[5] of 23
        0.12855275355334153,  // c[21]: -Q[5] of 23
        0.15475065017493012,  // c[22]: Q[9] of 23
        0.4075964682115579,  // c[23]: -P[9] of 23
        0.4130101145562366,  // c[24]: P[2] of 23
        0.1396613400420585,  // c[25]: Q[2] of 23
        0.07284077652875139,  // c[26]: -P[4] of 23
        0.42985679697172136,  // c[27]: -Q[4] of 23
        0.4006581594304406,  // c[28]: P[10] of 23
        0.1719176660785936,  // c[29]: Q[10] of 23
        0.3397700700904962,  // c[30]: -Q[6] of 23
        0.2732012886111602,  // c[31]: -P[6] of 23
        0.4322477411542684,  // c[32]: P[8] of 23
        0.05696081894716527,  // c[33]: Q[8] of 23
        0.635213297150478,  // c[34]: -Q[1] of 11
        0.19106037559687397,  // c[35]: -P[1] of 11
        0.41403241996621415,  // c[36]: P[4] of 11
        0.5182443007085755,  // c[37]: Q[4] of 11
        0.5272211128649671,  // c[38]: P[2] of 11
        0.4025393125514894,  // c[39]: Q[2] of 11
        0.4262349587304204,  // c[40]: Q[3] of 11
        0.5082556049431003,  // c[41]: -P[3] of 11
        0.045454545454545456,  // c[42]: 1/22
        0.1,  // c[43]: 1/10
        0.33166247903553997,  // c[44]: -beta of 11
        0.21799234196875997,  // c[45]: -beta of 23
        0.06103657603519695,  // c[46]: P[16] of 47
        0.2253348149666044,  // c[47]: Q[7] of 47
        0.29175574937483584,  // c[48]: Q[16] of 47
        0.19511817463101316,  // c[49]: -P[7] of 47
        0.15748304001523897,  // c[50]: P[6] of 47
        0.00967532918925448,  // c[51]: -Q[17] of 47
        0.2530730586509181,  // c[52]: Q[6] of 47
        0.29791486856558863,  // c[53]: -P[17] of 47
        0.05154770209002698,  // c[54]: P[4] of 47
        0.07666693363263027,  // c[55]: Q[1] of 47
        0.29358084971028037,  // c[56]: -Q[4] of 47
        0.28804350746847646,  // c[57]: P[1] of 47
        0.2130217041310005,  // c[58]: -Q[19] of 47
        0.20849132949956667,  // c[59]: -P[19] of 47
        0.297974179874349,  // c[60]: Q[22] of 47
        0.007633415721779962,  // c[61]: P[22] of 47
        0.29805497904125694,  // c[62]: P[10] of 47
        0.11563732379437514,  // c[63]: Q[13] of 47
        0.003179681758961217,  // c[64]: -Q[10] of 47
        0.27472693761815065,  // c[65]: P[13] of 47
        0.2977690620997712,  // c[66]: P[18] of 47
        0.2629127604291154,  // c[67]: Q[5] of 47
        0.01343378441076761,  // c[68]: -Q[18] of 47
        0.14044130913272984,  // c[69]: P[5] of 47
        0.29794106172777834,  // c[70]: -Q[2] of 47
        0.2917498199755859,  // c[71]: -Q[21] of 47
        0.008832023771285981,  // c[72]: -P[2] of 47
        0.061064911787258154,  // c[73]: -P[21] of 47
        0.0646717110823977,  // c[74]: -P[8] of 47
        0.001021139083650161,  // c[75]: -Q[11] of 47
        0.2909715633752674,  // c[76]: Q[8] of 47
        0.2980701900263497,  // c[77]: -P[11] of 47
        0.2269877535073196,  // c[78]: P[12] of 47
        0.2625439499857037,  // c[79]: P[15] of 47
        0.19319275520855517,  // c[80]: Q[12] of 47
        0.14112956895447787,  // c[81]: -Q[15] of 47
        0.23836550985857274,  // c[82]: Q[14] of 47
        0.1703926151559494,  // c[83]: P[9] of 47
        0.1789658196897806,  // c[84]: P[14] of 47
        0.24456745001673655,  // c[85]: Q[9] of 47
        0.19315799475712486,  // c[86]: -P[20] of 47
        0.2842707357056497,  // c[87]: -Q[3] of 47
        0.22701733407116498,  // c[88]: -Q[20] of 47
        0.08964948259048153,  // c[89]: P[3] of 47
        0.021739130434782608,  // c[90]: 1/46
        0.14903596957393575,  // c[91]: beta of 47
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x1_25 = io.pairs(1, 25);
        const Q x46_22 = io.pairs(46, 22);
        // real block of 2
        const Q t0 = x1_25 + x46_22;
        const Q t1 = x1_25 - x46_22;
        const Q x17_2 = io.pairs(17, 2);
        const Q x30_45 = io.pairs(30, 45);
        // real block of 2
        const Q t2 = x17_2 + x30_45;
        const Q t3 = x17_2 - x30_45;
        const Q x24_36 = io.pairs(24, 36);
        const Q x23_11 = io.pairs(23, 11);
        // real block of 2
        const Q t4 = x24_36 + x23_11;
        const Q t5 = x24_36 - x23_11;
        const Q t6 = shuffled<0, 1, 4, 5>(t2, t3);
        const Q t7 = shuffled<2, 3, 6, 7>(t4, t5);
        // real block of 2
        const Q t8 = t6 + t7;
        const Q t9 = t6 - t7;
        const Q x3_28 = io.pairs(3, 28);
        const Q x44_19 = io.pairs(44, 19);
        // real block of 2
        const Q t10 = x3_28 + x44_19;
        const Q t11 = x3_28 - x44_19;
        const Q x42_16 = io.pairs(42, 16);
        const Q x5_31 = io.pairs(5, 31);
        // real block of 2
        const Q t12 = x42_16 + x5_31;
        const Q t13 = x42_16 - x5_31;
        const Q t14 = shuffled<2, 3, 6, 7>(t12, t13);
        const Q t15 = shuffled<0, 1, 4, 5>(t10, t11);
        // real block of 2
        const Q t16 = t14 + t15;
        const Q t17 = t14 - t15;
        const Q t18 = shuffled<0, 1, 4, 5>(t12, t13);
        const Q t19 = shuffled<2, 3, 6, 7>(t10, t11);
        // real block of 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        const Q x4_6 = io.pairs(4, 6);
        const Q x43_41 = io.pairs(43, 41);
        // real block of 2
        const Q t22 = x4_6 + x43_41;
        const Q t23 = x4_6 - x43_41;
        const Q x8_12 = io.pairs(8, 12);
        const Q x39_35 = io.pairs(39, 35);
        // real block of 2
        const Q t24 = x8_12 + x39_35;
        const Q t25 = x8_12 - x39_35;
        const Q t26 = shuffled<0, 1, 4, 5>(t24, t25);
        const Q t27 = shuffled<2, 3, 6, 7>(t22, t23);
        // real block of 2
        const Q t28 = t26 + t27;
        const Q t29 = t26 - t27;
        const Q x7_34 = io.pairs(7, 34);
        const Q x40_13 = io.pairs(40, 13);
        // real block of 2
        const Q t30 = x7_34 + x40_13;
        const Q t31 = x7_34 - x40_13;
        const Q x18_27 = io.pairs(18, 27);
        const Q x29_20 = io.pairs(29, 20);
        // real block of 2
        const Q t32 = x18_27 + x29_20;
        const Q t33 = x18_27 - x29_20;
        const Q t34 = shuffled<0, 1, 4, 5>(t30, t31);
        const Q t35 = shuffled<2, 3, 6, 7>(t32, t33);
        // real block of 2
        const Q t36 = t34 + t35;
        const Q t37 = t34 - t35;
        const Q t38 = shuffled<0, 1, 4, 5>(t32, t33);
        const Q t39 = shuffled<2, 3, 6, 7>(t30, t31);
        // real block of 2
        const Q t40 = t38 + t39;
        const Q t41 = t38 - t39;
        const Q x9_37 = io.pairs(9, 37);
        const Q x38_10 = io.pairs(38, 10);
        // real block of 2
        const Q t42 = x9_37 + x38_10;
        const Q t43 = x9_37 - x38_10;
        const Q x14_21 = io.pairs(14, 21);
        const Q x33_26 = io.pairs(33, 26);
        // real block of 2
        const Q t44 = x14_21 + x33_26;
        const Q t45 = x14_21 - x33_26;
        const Q t46 = shuffled<0, 1, 4, 5>(t44, t45);
        const Q t47 = shuffled<2, 3, 6, 7>(t42, t43);
        // real block of 2
        const Q t48 = t46 + t47;
        const Q t49 = t46 - t47;
        const Q t50 = shuffled<2, 3, 6, 7>(t44, t45);
        const Q t51 = shuffled<0, 1, 4, 5>(t42, t43);
        // real block of 2
        const Q t52 = t50 + t51;
        const Q t53 = t50 - t51;
        const P x32 = io.pair(32);
        const P x15 = io.pair(15);
        // real block of 2
        const P t54 = x32 + x15;
        const P t55 = x32 - x15;
        const Q t56 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t57 = joined(t54, t55);
        // real block of 2
        const Q t58 = t56 + t57;
        // real block of 11, multiplier 2
        const Q t59 = t48 + t20;
        const Q t60 = t40 + t28;
        const Q t61 = c[0] * t59;
        const Q t62 = t58 - t61;
        const Q t63 = c[1] * t59;
        const Q t64 = t58 - t63;
        const Q t65 = c[2] * t59;
        const Q t66 = t58 - t65;
        const Q t67 = c[3] * t59;
        const Q t68 = c[4] * t60;
        const Q t69 = t67 + t68;
        // real block of 2
        const Q t70 = t56 - t57;
        // real block of 11, multiplier 2
        const Q t71 = t49 + t21;
        const Q t72 = t41 + t29;
        const Q t73 = c[0] * t71;
        const Q t74 = t70 - t73;
        const Q t75 = c[1] * t71;
        const Q t76 = t70 - t75;
        const Q t77 = c[2] * t71;
        const Q t78 = t70 - t77;
        const Q t79 = c[3] * t71;
        const Q t80 = c[4] * t72;
        const Q t81 = t79 + t80;
        const Q t82 = shuffled<2, 3, 6, 7>(t2, t3);
        const Q t83 = shuffled<0, 1, 4, 5>(t4, t5);
        // real block of 2
        const Q t84 = t82 + t83;
        const Q t85 = shuffled<0, 1, 4, 5>(t22, t23);
        const Q t86 = shuffled<2, 3, 6, 7>(t24, t25);
        // real block of 2
        const Q t87 = t85 + t86;
        // real block of 11, multiplier 2
        const Q t88 = t87 + t84;
        const Q t89 = t87 - t84;
        // real block of 2
        const Q t90 = t82 - t83;
        // real block of 2
        const Q t91 = t85 - t86;
        // real block of 11, multiplier 2
        const Q t92 = t91 + t90;
        const Q t93 = t91 - t90;
        // real block of 11, multiplier 2
        const Q t94 = t48 - t20;
        const Q t95 = t40 - t28;
        const Q t96 = t8 + t52;
        const Q t97 = t8 - t52;
        const Q t98 = t36 + t16;
        const Q t99 = t36 - t16;
        // real block of 11, multiplier 2
        const Q t100 = t49 - t21;
        const Q t101 = t41 - t29;
        const Q t102 = t9 + t53;
        const Q t103 = t9 - t53;
        const Q t104 = t37 + t17;
        const Q t105 = t37 - t17;
        // real block of 11, multiplier 2
        const Q t106 = t59 + t60;
        const Q t107 = t106 + t96;
        const Q t108 = t107 + t98;
        const Q t109 = c[4] * t59;
        const Q t110 = c[0] * t60;
        const Q t111 = t109 - t110;
        const Q t112 = c[1] * t96;
        const Q t113 = t111 - t112;
        const Q t114 = c[2] * t98;
        const Q t115 = t113 - t114;
        const Q t116 = c[3] * t88;
        const Q t117 = t115 + t116;
        const Q t118 = t117 + t58;
        const Q t119 = c[5] * t95;
        const Q t120 = c[6] * t97;
        const Q t121 = t119 + t120;
        const Q t122 = c[7] * t99;
        const Q t123 = t121 + t122;
        const Q t124 = c[8] * t94;
        const Q t125 = t123 - t124;
        const Q t126 = c[9] * t89;
        const Q t127 = t125 - t126;
        const Q t128 = c[2] * t60;
        const Q t129 = t62 - t128;
        const Q t130 = c[3] * t96;
        const Q t131 = t129 + t130;
        const Q t132 = c[1] * t98;
        const Q t133 = t131 - t132;
        const Q t134 = c[4] * t88;
        const Q t135 = t133 + t134;
        const Q t136 = c[5] * t94;
        const Q t137 = c[7] * t95;
        const Q t138 = t136 + t137;
        const Q t139 = c[9] * t97;
        const Q t140 = t138 + t139;
        const Q t141 = c[6] * t99;
        const Q t142 = t140 + t141;
        const Q t143 = c[8] * t89;
        const Q t144 = t142 + t143;
        const Q t145 = c[3] * t60;
        const Q t146 = t64 + t145;
        const Q t147 = c[0] * t96;
        const Q t148 = t146 - t147;
        const Q t149 = c[4] * t98;
        const Q t150 = t148 + t149;
        const Q t151 = c[2] * t88;
        const Q t152 = t150 - t151;
        const Q t153 = c[6] * t94;
        const Q t154 = c[9] * t95;
        const Q t155 = t153 + t154;
        const Q t156 = c[5] * t97;
        const Q t157 = t155 + t156;
        const Q t158 = c[8] * t99;
        const Q t159 = t157 - t158;
        const Q t160 = c[7] * t89;
        const Q t161 = t159 - t160;
        const Q t162 = c[1] * t60;
        const Q t163 = t66 - t162;
        const Q t164 = c[4] * t96;
        const Q t165 = t163 + t164;
        const Q t166 = c[3] * t98;
        const Q t167 = t165 + t166;
        const Q t168 = c[0] * t88;
        const Q t169 = t167 - t168;
        const Q t170 = c[7] * t94;
        const Q t171 = c[6] * t95;
        const Q t172 = t170 + t171;
        const Q t173 = c[9] * t99;
        const Q t174 = t172 + t173;
        const Q t175 = c[8] * t97;
        const Q t176 = t174 - t175;
        const Q t177 = c[5] * t89;
        const Q t178 = t176 - t177;
        const Q t179 = c[2] * t96;
        const Q t180 = t69 - t179;
        const Q t181 = c[0] * t98;
        const Q t182 = t180 - t181;
        const Q t183 = c[1] * t88;
        const Q t184 = t182 - t183;
        const Q t185 = t184 + t58;
        const Q t186 = c[9] * t94;
        const Q t187 = c[7] * t97;
        const Q t188 = t186 + t187;
        const Q t189 = c[5] * t99;
        const Q t190 = t188 + t189;
        const Q t191 = c[8] * t95;
        const Q t192 = t190 - t191;
        const Q t193 = c[6] * t89;
        const Q t194 = t192 - t193;
        // real block of 11, multiplier 2
        const Q t195 = t71 + t72;
        const Q t196 = t195 + t102;
        const Q t197 = t196 + t104;
        const Q t198 = c[4] * t71;
        const Q t199 = c[0] * t72;
        const Q t200 = t198 - t199;
        const Q t201 = c[1] * t102;
        const Q t202 = t200 - t201;
        const Q t203 = c[2] * t104;
        const Q t204 = t202 - t203;
        const Q t205 = c[3] * t92;
        const Q t206 = t204 + t205;
        const Q t207 = t206 + t70;
        const Q t208 = c[5] * t101;
        const Q t209 = c[6] * t103;
        const Q t210 = t208 + t209;
        const Q t211 = c[7] * t105;
        const Q t212 = t210 + t211;
        const Q t213 = c[8] * t100;
        const Q t214 = t212 - t213;
        const Q t215 = c[9] * t93;
        const Q t216 = t214 - t215;
        const Q t217 = c[2] * t72;
        const Q t218 = t74 - t217;
        const Q t219 = c[3] * t102;
        const Q t220 = t218 + t219;
        const Q t221 = c[1] * t104;
        const Q t222 = t220 - t221;
        const Q t223 = c[4] * t92;
        const Q t224 = t222 + t223;
        const Q t225 = c[5] * t100;
        const Q t226 = c[7] * t101;
        const Q t227 = t225 + t226;
        const Q t228 = c[9] * t103;
        const Q t229 = t227 + t228;
        const Q t230 = c[6] * t105;
        const Q t231 = t229 + t230;
        const Q t232 = c[8] * t93;
        const Q t233 = t231 + t232;
        const Q t234 = c[3] * t72;
        const Q t235 = t76 + t234;
        const Q t236 = c[0] * t102;
        const Q t237 = t235 - t236;
        const Q t238 = c[4] * t104;
        const Q t239 = t237 + t238;
        const Q t240 = c[2] * t92;
        const Q t241 = t239 - t240;
        const Q t242 = c[6] * t100;
        const Q t243 = c[9] * t101;
        const Q t244 = t242 + t243;
        const Q t245 = c[5] * t103;
        const Q t246 = t244 + t245;
        const Q t247 = c[8] * t105;
        const Q t248 = t246 - t247;
        const Q t249 = c[7] * t93;
        const Q t250 = t248 - t249;
        const Q t251 = c[1] * t72;
        const Q t252 = t78 - t251;
        const Q t253 = c[4] * t102;
        const Q t254 = t252 + t253;
        const Q t255 = c[3] * t104;
        const Q t256 = t254 + t255;
        const Q t257 = c[0] * t92;
        const Q t258 = t256 - t257;
        const Q t259 = c[7] * t100;
        const Q t260 = c[6] * t101;
        const Q t261 = t259 + t260;
        const Q t262 = c[9] * t105;
        const Q t263 = t261 + t262;
        const Q t264 = c[8] * t103;
        const Q t265 = t263 - t264;
        const Q t266 = c[5] * t93;
        const Q t267 = t265 - t266;
        const Q t268 = c[2] * t102;
        const Q t269 = t81 - t268;
        const Q t270 = c[0] * t104;
        const Q t271 = t269 - t270;
        const Q t272 = c[1] * t92;
        const Q t273 = t271 - t272;
        const Q t274 = t273 + t70;
        const Q t275 = c[9] * t100;
        const Q t276 = c[7] * t103;
        const Q t277 = t275 + t276;
        const Q t278 = c[5] * t105;
        const Q t279 = t277 + t278;
        const Q t280 = c[8] * t101;
        const Q t281 = t279 - t280;
        const Q t282 = c[6] * t93;
        const Q t283 = t281 - t282;
        // real block of 11, multiplier 2
        const Q t284 = t108 + t88;
        const Q t285 = t284 + t58;
        const Q t286 = shuffled<0, 1, 4, 5>(t0, t1);
        // real block of 23, multiplier 2
        const Q t287 = c[42] * t285;
        const Q t288 = t286 - t287;
        // real block of 11, multiplier 2
        const Q t289 = t197 + t92;
        const Q t290 = t289 + t70;
        // real block of 23, multiplier 2
        const Q t291 = c[14] * t274;
        const Q t292 = c[15] * t283;
        const Q t293 = t291 + t292;
        const Q t294 = c[16] * t224;
        const Q t295 = c[17] * t233;
        const Q t296 = t294 - t295;
        // real block of 5
        const Q t297 = t296 + t293;
        const Q t298 = t293 - t296;
        // real block of 23, multiplier 2
        const Q t299 = c[18] * t258;
        const Q t300 = c[19] * t267;
        const Q t301 = t299 - t300;
        const Q t302 = c[20] * t241;
        const Q t303 = c[21] * t250;
        const Q t304 = t302 + t303;
        // real block of 5
        const Q t305 = t301 - t304;
        const Q t306 = t304 + t301;
        // real block of 23, multiplier 2
        const Q t307 = c[22] * t216;
        const Q t308 = c[23] * t207;
        const Q t309 = t307 - t308;
        // real block of 5
        const Q t310 = t305 - t297;
        const Q t311 = t310 + t309;
        const Q t312 = c[10] * t297;
        const Q t313 = t309 - t312;
        const Q t314 = c[11] * t305;
        const Q t315 = t313 - t314;
        const Q t316 = c[12] * t298;
        const Q t317 = c[13] * t306;
        const Q t318 = t316 + t317;
        const Q t319 = c[11] * t297;
        const Q t320 = c[10] * t305;
        const Q t321 = t319 + t320;
        const Q t322 = t321 + t309;
        const Q t323 = c[12] * t306;
        const Q t324 = c[13] * t298;
        const Q t325 = t323 - t324;
        // real block of 23, multiplier 2
        const Q t326 = c[14] * t283;
        const Q t327 = c[15] * t274;
        const Q t328 = t326 - t327;
        const Q t329 = c[16] * t233;
        const Q t330 = c[17] * t224;
        const Q t331 = t329 + t330;
        // real block of 5
        const Q t332 = t331 + t328;
        const Q t333 = t331 - t328;
        // real block of 23, multiplier 2
        const Q t334 = c[18] * t267;
        const Q t335 = c[19] * t258;
        const Q t336 = t334 + t335;
        const Q t337 = c[20] * t250;
        const Q t338 = c[21] * t241;
        const Q t339 = t337 - t338;
        // real block of 5
        const Q t340 = t339 - t336;
        const Q t341 = t339 + t336;
        // real block of 23, multiplier 2
        const Q t342 = c[23] * t216;
        const Q t343 = c[22] * t207;
        const Q t344 = t342 + t343;
        // real block of 5
        const Q t345 = t332 + t340;
        const Q t346 = t345 + t344;
        const Q t347 = c[10] * t332;
        const Q t348 = c[11] * t340;
        const Q t349 = t347 - t348;
        const Q t350 = t349 + t344;
        const Q t351 = c[13] * t341;
        const Q t352 = c[12] * t333;
        const Q t353 = t351 - t352;
        const Q t354 = c[11] * t332;
        const Q t355 = t344 - t354;
        const Q t356 = c[10] * t340;
        const Q t357 = t355 + t356;
        const Q t358 = c[13] * t333;
        const Q t359 = c[12] * t341;
        const Q t360 = t358 + t359;
        // real block of 23, multiplier 2
        const Q t361 = c[24] * t118;
        const Q t362 = c[25] * t127;
        const Q t363 = t361 - t362;
        const Q t364 = c[26] * t135;
        const Q t365 = c[27] * t144;
        const Q t366 = t364 + t365;
        const Q t367 = c[28] * t185;
        const Q t368 = c[29] * t194;
        const Q t369 = t367 - t368;
        // real block of 5
        const Q t370 = t369 - t366;
        const Q t371 = t366 + t369;
        // real block of 23, multiplier 2
        const Q t372 = c[30] * t161;
        const Q t373 = c[31] * t152;
        const Q t374 = t372 - t373;
        const Q t375 = c[32] * t169;
        const Q t376 = c[33] * t178;
        const Q t377 = t375 - t376;
        // real block of 5
        const Q t378 = t374 + t377;
        const Q t379 = t374 - t377;
        const Q t380 = t370 + t378;
        const Q t381 = t380 + t363;
        const Q t382 = c[10] * t370;
        const Q t383 = c[11] * t378;
        const Q t384 = t382 - t383;
        const Q t385 = t384 + t363;
        const Q t386 = c[12] * t371;
        const Q t387 = c[13] * t379;
        const Q t388 = t386 + t387;
        const Q t389 = c[11] * t370;
        const Q t390 = t363 - t389;
        const Q t391 = c[10] * t378;
        const Q t392 = t390 + t391;
        const Q t393 = c[13] * t371;
        const Q t394 = c[12] * t379;
        const Q t395 = t393 - t394;
        // real block of 23, multiplier 2
        const Q t396 = c[24] * t127;
        const Q t397 = c[25] * t118;
        const Q t398 = t396 + t397;
        const Q t399 = c[26] * t144;
        const Q t400 = c[27] * t135;
        const Q t401 = t399 - t400;
        const Q t402 = c[28] * t194;
        const Q t403 = c[29] * t185;
        const Q t404 = t402 + t403;
        // real block of 5
        const Q t405 = t404 - t401;
        const Q t406 = t401 + t404;
        // real block of 23, multiplier 2
        const Q t407 = c[31] * t161;
        const Q t408 = c[30] * t152;
        const Q t409 = t407 + t408;
        const Q t410 = c[32] * t178;
        const Q t411 = c[33] * t169;
        const Q t412 = t410 + t411;
        // real block of 5
        const Q t413 = t412 - t409;
        const Q t414 = t409 + t412;
        const Q t415 = t405 + t413;
        const Q t416 = t415 + t398;
        const Q t417 = c[10] * t405;
        const Q t418 = c[11] * t413;
        const Q t419 = t417 - t418;
        const Q t420 = t419 + t398;
        const Q t421 = c[12] * t406;
        const Q t422 = c[13] * t414;
        const Q t423 = t421 - t422;
        const Q t424 = c[11] * t405;
        const Q t425 = t398 - t424;
        const Q t426 = c[10] * t413;
        const Q t427 = t425 + t426;
        const Q t428 = c[13] * t406;
        const Q t429 = c[12] * t414;
        const Q t430 = t428 + t429;
        // real block of 23, multiplier 2
        const Q t431 = t286 + t285;
        // spectrum block of 11
        const Q t432 = c[43] * t381;
        const Q t433 = t288 - t432;
        const Q t434 = c[34] * t427;
        const Q t435 = c[35] * t430;
        const Q t436 = t434 + t435;
        const Q t437 = c[36] * t392;
        const Q t438 = c[37] * t395;
        const Q t439 = t437 - t438;
        // complex block of 2
        const Q t440 = t439 - t436;
        const Q t441 = t439 + t436;
        // spectrum block of 11
        const Q t442 = c[38] * t385;
        const Q t443 = c[39] * t388;
        const Q t444 = t442 - t443;
        const Q t445 = c[40] * t420;
        const Q t446 = c[41] * t423;
        const Q t447 = t445 - t446;
        // complex block of 2
        const Q t448 = t444 + t447;
        const Q t449 = t444 - t447;
        // spectrum block of 11
        const Q t450 = c[44] * t416;
        // spectrum block of 2
        const Q t451 = t433 - t450;
        // spectrum block of 5, multiplier 2
        const Q t452 = t448 + t440;
        const Q t453 = c[10] * t448;
        const Q t454 = c[11] * t440;
        const Q t455 = t453 - t454;
        const Q t456 = t452 + t451;
        const Q t457 = t455 + t451;
        const Q t458 = c[11] * t448;
        const Q t459 = t451 - t458;
        // spectrum block of 2
        const Q t460 = t433 + t450;
        // spectrum block of 5, multiplier 2
        const Q t461 = t449 + t441;
        const Q t462 = c[10] * t449;
        const Q t463 = c[11] * t441;
        const Q t464 = t462 - t463;
        const Q t465 = t461 + t460;
        const Q t466 = t464 + t460;
        const Q t467 = c[11] * t449;
        const Q t468 = t460 - t467;
        // spectrum block of 11
        const Q t469 = c[34] * t430;
        const Q t470 = c[35] * t427;
        const Q t471 = t469 - t470;
        const Q t472 = c[36] * t395;
        const Q t473 = c[37] * t392;
        const Q t474 = t472 + t473;
        // complex block of 2
        const Q t475 = t474 - t471;
        const Q t476 = t474 + t471;
        // spectrum block of 11
        const Q t477 = c[38] * t388;
        const Q t478 = c[39] * t385;
        const Q t479 = t477 + t478;
        const Q t480 = c[40] * t423;
        const Q t481 = c[41] * t420;
        const Q t482 = t480 + t481;
        // complex block of 2
        const Q t483 = t479 + t482;
        const Q t484 = t479 - t482;
        // spectrum block of 5, multiplier 2
        const Q t485 = c[12] * t483;
        const Q t486 = c[13] * t475;
        const Q t487 = t485 + t486;
        const Q t488 = c[13] * t483;
        const Q t489 = c[12] * t475;
        const Q t490 = t488 - t489;
        // spectrum block of 5, multiplier 2
        const Q t491 = c[12] * t484;
        const Q t492 = c[13] * t476;
        const Q t493 = t491 + t492;
        const Q t494 = c[13] * t484;
        const Q t495 = c[12] * t476;
        const Q t496 = t494 - t495;
        // spectrum block of 11
        const Q t497 = t288 + t381;
        // real block of 23, multiplier 2
        const Q t498 = c[45] * t290;
        // spectrum block of 11
        const Q t499 = t346 - t498;
        const Q t500 = c[43] * t346;
        const Q t501 = t498 + t500;
        const Q t502 = c[34] * t322;
        const Q t503 = c[35] * t325;
        const Q t504 = t502 + t503;
        const Q t505 = c[36] * t357;
        const Q t506 = c[37] * t360;
        const Q t507 = t505 + t506;
        // complex block of 2
        const Q t508 = t507 - t504;
        const Q t509 = t507 + t504;
        // spectrum block of 11
        const Q t510 = c[38] * t350;
        const Q t511 = c[39] * t353;
        const Q t512 = t510 - t511;
        const Q t513 = c[40] * t315;
        const Q t514 = c[41] * t318;
        const Q t515 = t513 + t514;
        // complex block of 2
        const Q t516 = t512 + t515;
        const Q t517 = t512 - t515;
        // spectrum block of 11
        const Q t518 = c[44] * t311;
        // spectrum block of 2
        const Q t519 = t501 + t518;
        // spectrum block of 5, multiplier 2
        const Q t520 = t516 + t508;
        const Q t521 = c[10] * t516;
        const Q t522 = c[11] * t508;
        const Q t523 = t521 - t522;
        const Q t524 = t520 - t519;
        const Q t525 = t523 - t519;
        const Q t526 = c[11] * t516;
        const Q t527 = t519 + t526;
        // spectrum block of 2
        const Q t528 = t518 - t501;
        // spectrum block of 5, multiplier 2
        const Q t529 = t517 + t509;
        const Q t530 = c[10] * t517;
        const Q t531 = c[11] * t509;
        const Q t532 = t530 - t531;
        const Q t533 = t529 + t528;
        const Q t534 = t532 + t528;
        const Q t535 = c[11] * t517;
        const Q t536 = t528 - t535;
        // spectrum block of 11
        const Q t537 = c[34] * t325;
        const Q t538 = c[35] * t322;
        const Q t539 = t537 - t538;
        const Q t540 = c[37] * t357;
        const Q t541 = c[36] * t360;
        const Q t542 = t540 - t541;
        // complex block of 2
        const Q t543 = t542 - t539;
        const Q t544 = t542 + t539;
        // spectrum block of 11
        const Q t545 = c[38] * t353;
        const Q t546 = c[39] * t350;
        const Q t547 = t545 + t546;
        const Q t548 = c[40] * t318;
        const Q t549 = c[41] * t315;
        const Q t550 = t548 - t549;
        // complex block of 2
        const Q t551 = t547 - t550;
        const Q t552 = t547 + t550;
        // spectrum block of 5, multiplier 2
        const Q t553 = c[12] * t551;
        const Q t554 = c[13] * t543;
        const Q t555 = t553 + t554;
        const Q t556 = c[13] * t551;
        const Q t557 = c[12] * t543;
        const Q t558 = t556 - t557;
        // spectrum block of 5, multiplier 2
        const Q t559 = c[12] * t552;
        const Q t560 = c[13] * t544;
        const Q t561 = t559 + t560;
        const Q t562 = c[13] * t552;
        const Q t563 = c[12] * t544;
        const Q t564 = t562 - t563;
        // spectrum block of 5, multiplier 2
        const Q t565 = t457 - t487;
        // spectrum block of 5, multiplier 2
        const Q t566 = t525 - t555;
        const Q t567 = shuffled<0, 5, 3, 6>(t565, t565);
        // complex block of 47
        const Q t568 = Q(c[46], c[46], c[47], -c[47]) * t567;
        const Q t569 = shuffled<0, 5, 3, 6>(t566, t566);
        const Q t570 = Q(c[48], c[48], c[49], -c[49]) * t569;
        const Q t571 = t568 - t570;
        const Q t572 = Q(c[46], c[46], c[47], c[47]) * t569;
        const Q t573 = Q(c[48], c[48], c[49], c[49]) * t567;
        const Q t574 = t572 + t573;
        // spectrum block of 5, multiplier 2
        const Q t575 = t466 - t493;
        // spectrum block of 5, multiplier 2
        const Q t576 = t534 - t561;
        const Q t577 = shuffled<0, 5, 3, 6>(t575, t575);
        // complex block of 47
        const Q t578 = Q(c[50], c[50], c[51], c[51]) * t577;
        const Q t579 = shuffled<0, 5, 3, 6>(t576, t576);
        const Q t580 = Q(-c[52], -c[52], c[53], c[53]) * t579;
        const Q t581 = t578 + t580;
        const Q t582 = Q(c[52], c[52], -c[53], c[53]) * t577;
        const Q t583 = Q(c[50], c[50], c[51], -c[51]) * t579;
        const Q t584 = t582 + t583;
        const Q t585 = flipped<0, 0, 1, 0>(t584);
        // real block of 11
        const Q t586 = t574 + t585;
        const Q t587 = flipped<1, 1, 1, 0>(t585);
        const Q t588 = flipped<0, 0, 0, 1>(t574);
        const Q t589 = t587 + t588;
        const Q t590 = flipped<0, 0, 1, 0>(t581);
        // real block of 11
        const Q t591 = t571 + t590;
        const Q t592 = t571 - t590;
        // spectrum block of 5, multiplier 2
        const Q t593 = t457 + t487;
        // spectrum block of 5, multiplier 2
        const Q t594 = t466 + t493;
        // spectrum block of 5, multiplier 2
        const Q t595 = t525 + t555;
        // spectrum block of 5, multiplier 2
        const Q t596 = t534 + t561;
        const Q t597 = shuffled<1, 0, 3, 2>(t596);
        const Q t598 = shuffled<0, 1, 6, 7>(t595, t597);
        // complex block of 47
        const Q t599 = Q(c[54], c[54], c[55], c[55]) * t598;
        const Q t600 = shuffled<1, 0, 3, 2>(t594);
        const Q t601 = shuffled<0, 1, 6, 7>(t593, t600);
        const Q t602 = Q(-c[56], -c[56], c[57], c[57]) * t601;
        const Q t603 = t599 + t602;
        const Q t604 = shuffled<0, 5, 3, 6>(t593, t593);
        const Q t605 = Q(c[54], c[54], c[58], c[58]) * t604;
        const Q t606 = shuffled<0, 5, 3, 6>(t595, t595);
        const Q t607 = Q(c[56], c[56], c[59], c[59]) * t606;
        const Q t608 = t605 + t607;
        const Q t609 = shuffled<0, 1, 6, 7>(t596, t598);
        const Q t610 = Q(c[60], c[60], -c[57], c[57]) * t609;
        const Q t611 = shuffled<0, 1, 6, 7>(t594, t601);
        const Q t612 = Q(c[61], c[61], c[55], -c[55]) * t611;
        const Q t613 = t610 + t612;
        const Q t614 = shuffled<0, 1, 6, 7>(t611, t606);
        const Q t615 = Q(c[60], c[60], c[58], -c[58]) * t614;
        const Q t616 = shuffled<0, 1, 6, 7>(t609, t604);
        const Q t617 = Q(c[61], c[61], c[59], -c[59]) * t616;
        const Q t618 = t615 - t617;
        const Q t619 = shuffled<0, 5, 3, 6>(t465, t465);
        const Q t620 = Q(c[62], c[62], c[63], -c[63]) * t619;
        const Q t621 = shuffled<0, 5, 3, 6>(t533, t533);
        const Q t622 = Q(c[64], c[64], c[65], -c[65]) * t621;
        const Q t623 = t620 - t622;
        const Q t624 = shuffled<0, 5, 3, 6>(t456, t456);
        const Q t625 = Q(c[66], c[66], c[67], c[67]) * t624;
        const Q t626 = shuffled<0, 5, 3, 6>(t524, t524);
        const Q t627 = Q(c[68], c[68], c[69], c[69]) * t626;
        const Q t628 = t625 + t627;
        const Q t629 = flipped<0, 0, 0, 1>(t628);
        // real block of 11
        const Q t630 = t623 + t629;
        // complex block of 47
        const Q t631 = Q(c[62], c[62], c[63], c[63]) * t621;
        const Q t632 = Q(c[64], c[64], c[65], c[65]) * t619;
        const Q t633 = t631 + t632;
        const Q t634 = shuffled<0, 1, 6, 7>(t626, t624);
        const Q t635 = Q(c[66], c[66], c[69], -c[69]) * t634;
        const Q t636 = shuffled<0, 1, 6, 7>(t624, t626);
        const Q t637 = Q(c[68], c[68], c[67], -c[67]) * t636;
        const Q t638 = t635 - t637;
        const Q t639 = flipped<0, 0, 1, 0>(t638);
        // real block of 11
        const Q t640 = t633 + t639;
        const Q t641 = shuffled<1, 0, 3, 2>(t497);
        const Q t642 = shuffled<0, 1, 6, 7>(t499, t641);
        // complex block of 47
        const Q t643 = Q(c[70], c[70], c[71], c[71]) * t642;
        const Q t644 = shuffled<1, 0, 3, 2>(t499);
        const Q t645 = shuffled<0, 1, 6, 7>(t497, t644);
        const Q t646 = Q(-c[72], -c[72], c[73], c[73]) * t645;
        const Q t647 = t643 + t646;
        const Q t648 = shuffled<0, 1, 6, 7>(t645, t642);
        const Q t649 = Q(c[70], c[70], -c[73], c[73]) * t648;
        const Q t650 = shuffled<0, 1, 6, 7>(t642, t645);
        const Q t651 = Q(c[72], c[72], c[71], -c[71]) * t650;
        const Q t652 = t649 + t651;
        const Q t653 = flipped<0, 0, 0, 1>(t618);
        // real block of 11
        const Q t654 = t603 - t653;
        const Q t655 = c[3] * t640;
        const P t656 = part<0>(t655);
        const Q t657 = c[4] * t654;
        const P t658 = part<0>(t657);
        const P t659 = t656 + t658;
        const Q t660 = c[4] * t640;
        const P t661 = part<0>(t660);
        const Q t662 = c[0] * t654;
        const P t663 = part<0>(t662);
        const P t664 = t661 - t663;
        const Q t665 = t640 + t654;
        const P t666 = part<1>(t657);
        const P t667 = part<1>(t652);
        const P t668 = shuffled<0, 3>(t666, t667);
        const P t669 = part<1>(t655);
        // real block of 11
        const P t670 = t668 + t669;
        const P t671 = part<1>(t662);
        const P t672 = shuffled<0, 3>(t671, t668);
        const P t673 = flipped<1, 0>(t672);
        const P t674 = part<1>(t660);
        const P t675 = t673 + t674;
        const Q t676 = flipped<1, 1, 1, 0>(t639);
        const Q t677 = flipped<0, 0, 0, 1>(t633);
        // real block of 11
        const Q t678 = t676 + t677;
        const Q t679 = flipped<0, 0, 0, 1>(t603);
        const Q t680 = t618 + t679;
        const P t681 = part<0>(t652);
        const Q t682 = c[2] * t640;
        const P t683 = part<0>(t682);
        const P t684 = t681 + t683;
        const Q t685 = c[0] * t640;
        const P t686 = part<0>(t685);
        const P t687 = t681 + t686;
        // real block of 11
        const Q t688 = t623 - t629;
        const Q t689 = flipped<0, 0, 1, 0>(t608);
        const Q t690 = t613 + t689;
        const Q t691 = t630 + t690;
        const Q t692 = c[3] * t630;
        const Q t693 = c[4] * t690;
        const Q t694 = t692 + t693;
        const Q t695 = c[4] * t630;
        const Q t696 = c[0] * t690;
        const Q t697 = t695 - t696;
        const Q t698 = t613 - t689;
        const Q t699 = Q(c[2], c[2], -c[2], c[2]) * t630;
        const Q t700 = t647 - t699;
        const Q t701 = Q(c[0], c[0], -c[0], c[0]) * t630;
        const Q t702 = t647 - t701;
        const Q t703 = Q(c[1], c[1], -c[1], c[1]) * t630;
        const Q t704 = t647 - t703;
        // spectrum block of 5, multiplier 2
        const Q t705 = c[10] * t440;
        const Q t706 = t459 + t705;
        const Q t707 = t706 - t490;
        const Q t708 = t706 + t490;
        // spectrum block of 5, multiplier 2
        const Q t709 = c[10] * t441;
        const Q t710 = t468 + t709;
        const Q t711 = t710 - t496;
        const Q t712 = t710 + t496;
        // spectrum block of 5, multiplier 2
        const Q t713 = c[10] * t508;
        const Q t714 = t713 - t527;
        const Q t715 = t714 - t558;
        const Q t716 = t714 + t558;
        // spectrum block of 5, multiplier 2
        const Q t717 = c[10] * t509;
        const Q t718 = t536 + t717;
        const Q t719 = t718 - t564;
        const Q t720 = t718 + t564;
        const Q t721 = shuffled<1, 0, 3, 2>(t708);
        const Q t722 = shuffled<0, 1, 6, 7>(t712, t721);
        // complex block of 47
        const Q t723 = Q(c[74], c[74], c[75], c[75]) * t722;
        const Q t724 = shuffled<1, 0, 3, 2>(t716);
        const Q t725 = shuffled<0, 1, 6, 7>(t720, t724);
        const Q t726 = Q(c[76], c[76], c[77], c[77]) * t725;
        const Q t727 = t723 + t726;
        const Q t728 = shuffled<1, 0, 3, 2>(t720);
        const Q t729 = shuffled<0, 1, 6, 7>(t708, t728);
        const Q t730 = Q(c[78], c[78], c[79], -c[79]) * t729;
        const Q t731 = shuffled<1, 0, 3, 2>(t712);
        const Q t732 = shuffled<0, 1, 6, 7>(t716, t731);
        const Q t733 = Q(c[80], c[80], c[81], -c[81]) * t732;
        const Q t734 = t730 - t733;
        const Q t735 = flipped<0, 0, 0, 1>(t727);
        // real block of 11
        const Q t736 = t734 + t735;
        const Q t737 = t734 - t735;
        const Q t738 = shuffled<0, 1, 6, 7>(t729, t722);
        // complex block of 47
        const Q t739 = Q(c[80], c[80], -c[77], c[77]) * t738;
        const Q t740 = shuffled<0, 1, 6, 7>(t732, t725);
        const Q t741 = Q(c[78], c[78], c[75], -c[75]) * t740;
        const Q t742 = t739 + t741;
        const Q t743 = shuffled<0, 1, 6, 7>(t722, t729);
        const Q t744 = Q(c[76], c[76], c[81], c[81]) * t743;
        const Q t745 = shuffled<0, 1, 6, 7>(t725, t732);
        const Q t746 = Q(-c[74], -c[74], c[79], c[79]) * t745;
        const Q t747 = t744 + t746;
        const Q t748 = flipped<0, 0, 1, 0>(t747);
        const Q t749 = flipped<1, 1, 0, 0>(t742);
        // real block of 11
        const Q t750 = t748 + t749;
        const Q t751 = flipped<1, 1, 0, 1>(t749);
        const Q t752 = t747 + t751;
        const Q t753 = shuffled<0, 5, 3, 6>(t715, t715);
        // complex block of 47
        const Q t754 = Q(c[82], c[82], -c[83], c[83]) * t753;
        const Q t755 = shuffled<0, 5, 3, 6>(t707, t707);
        const Q t756 = Q(c[84], c[84], c[85], -c[85]) * t755;
        const Q t757 = t754 + t756;
        const Q t758 = shuffled<0, 5, 3, 6>(t711, t711);
        const Q t759 = Q(c[86], c[86], c[87], c[87]) * t758;
        const Q t760 = shuffled<0, 5, 3, 6>(t719, t719);
        const Q t761 = Q(c[88], c[88], c[89], c[89]) * t760;
        const Q t762 = t759 + t761;
        const Q t763 = flipped<0, 0, 0, 1>(t762);
        // real block of 11
        const Q t764 = t757 - t763;
        const Q t765 = flipped<0, 0, 0, 1>(t757);
        const Q t766 = t762 + t765;
        const Q t767 = shuffled<0, 1, 6, 7>(t755, t753);
        // complex block of 47
        const Q t768 = Q(c[82], c[82], c[85], c[85]) * t767;
        const Q t769 = shuffled<0, 1, 6, 7>(t753, t755);
        const Q t770 = Q(-c[84], -c[84], c[83], c[83]) * t769;
        const Q t771 = t768 + t770;
        const Q t772 = shuffled<0, 1, 6, 7>(t760, t758);
        const Q t773 = Q(c[86], c[86], c[89], -c[89]) * t772;
        const Q t774 = shuffled<0, 1, 6, 7>(t758, t760);
        const Q t775 = Q(c[88], c[88], c[87], -c[87]) * t774;
        const Q t776 = t773 - t775;
        const Q t777 = flipped<0, 0, 0, 1>(t771);
        // real block of 11
        const Q t778 = t776 + t777;
        const Q t779 = shuffled<0, 1, 6, 7>(t777, t776);
        const Q t780 = shuffled<0, 1, 6, 7>(t776, t777);
        const Q t781 = t779 - t780;
        const Q t782 = c[2] * t778;
        const P t783 = part<0>(t782);
        const P t784 = t659 + t783;
        const P t785 = part<1>(t782);
        const P t786 = shuffled<0, 3>(t785, t666);
        const P t787 = flipped<1, 0>(t786);
        // real block of 11
        const P t788 = t670 + t787;
        // real block of 11
        const Q t789 = c[0] * t752;
        const P t790 = part<0>(t789);
        const P t791 = t784 - t790;
        const P t792 = part<1>(t789);
        const P t793 = shuffled<0, 3>(t792, t785);
        // real block of 11
        const P t794 = t788 + t793;
        // real block of 11
        const Q t795 = c[1] * t586;
        const P t796 = part<0>(t795);
        const P t797 = t791 - t796;
        const P t798 = part<1>(t795);
        const P t799 = shuffled<0, 3>(t798, t792);
        const P t800 = flipped<1, 0>(t799);
        // real block of 11
        const P t801 = t794 + t800;
        // real block of 11
        const P t802 = t797 - t681;
        const P t803 = shuffled<0, 3>(t801, t798);
        const P t804 = shuffled<0, 3>(t667, t801);
        // real block of 11
        const P t805 = t803 - t804;
        // real block of 11
        const Q t806 = c[6] * t589;
        const P t807 = part<0>(t806);
        const Q t808 = c[9] * t678;
        const P t809 = part<0>(t808);
        const P t810 = t807 - t809;
        const Q t811 = c[8] * t680;
        const P t812 = part<0>(t811);
        const P t813 = t810 - t812;
        const P t814 = part<1>(t811);
        const P t815 = part<1>(t806);
        // real block of 11
        const P t816 = t814 + t815;
        const P t817 = part<1>(t808);
        const P t818 = t816 - t817;
        // real block of 11
        const Q t819 = c[7] * t781;
        const P t820 = part<0>(t819);
        const P t821 = t813 - t820;
        const P t822 = part<1>(t819);
        // real block of 11
        const P t823 = t818 - t822;
        // real block of 11
        const Q t824 = c[5] * t750;
        const P t825 = part<0>(t824);
        const P t826 = t821 - t825;
        const P t827 = part<1>(t824);
        // real block of 11
        const P t828 = t823 - t827;
        // real block of 11
        const Q t829 = c[1] * t778;
        const P t830 = part<0>(t829);
        const P t831 = t664 + t830;
        const P t832 = shuffled<0, 3>(t675, t671);
        const P t833 = part<1>(t829);
        const P t834 = shuffled<0, 3>(t833, t675);
        // real block of 11
        const P t835 = t832 - t834;
        // real block of 11
        const Q t836 = c[2] * t752;
        const P t837 = part<0>(t836);
        const P t838 = t831 - t837;
        const P t839 = part<1>(t836);
        const P t840 = shuffled<0, 3>(t839, t833);
        const P t841 = flipped<0, 1>(t840);
        // real block of 11
        const P t842 = t835 + t841;
        // real block of 11
        const Q t843 = c[3] * t586;
        const P t844 = part<0>(t843);
        const P t845 = t838 + t844;
        const P t846 = part<1>(t843);
        const P t847 = shuffled<0, 3>(t846, t839);
        const P t848 = flipped<0, 1>(t847);
        // real block of 11
        const P t849 = t842 + t848;
        // real block of 11
        const P t850 = t845 - t681;
        const P t851 = shuffled<0, 3>(t804, t846);
        // real block of 11
        const P t852 = t849 - t851;
        // real block of 11
        const Q t853 = c[6] * t781;
        const P t854 = part<0>(t853);
        const Q t855 = c[7] * t750;
        const P t856 = part<0>(t855);
        const P t857 = t854 + t856;
        const Q t858 = c[8] * t678;
        const P t859 = part<0>(t858);
        const P t860 = t857 - t859;
        const Q t861 = c[5] * t680;
        const P t862 = part<0>(t861);
        const P t863 = t860 - t862;
        const P t864 = part<1>(t861);
        const P t865 = part<1>(t853);
        // real block of 11
        const P t866 = t864 + t865;
        const P t867 = part<1>(t855);
        const P t868 = t866 + t867;
        const P t869 = part<1>(t858);
        const P t870 = t868 - t869;
        // real block of 11
        const Q t871 = c[9] * t589;
        const P t872 = part<0>(t871);
        const P t873 = t863 - t872;
        const P t874 = part<1>(t871);
        // real block of 11
        const P t875 = t870 - t874;
        // real block of 11
        const Q t876 = c[1] * t654;
        const P t877 = part<0>(t876);
        const P t878 = t684 + t877;
        const P t879 = part<1>(t682);
        const P t880 = part<1>(t876);
        const P t881 = shuffled<0, 3>(t851, t880);
        // real block of 11
        const P t882 = t879 + t881;
        // real block of 11
        const Q t883 = c[4] * t778;
        const P t884 = part<1>(t883);
        const P t885 = shuffled<0, 3>(t880, t884);
        // real block of 11
        const P t886 = t882 + t885;
        const P t887 = part<0>(t883);
        // real block of 11
        const P t888 = t878 + t887;
        const P t889 = shuffled<0, 3>(t884, t886);
        const Q t890 = Q(c[3], c[3], c[3], -c[3]) * t752;
        const P t891 = part<1>(t890);
        const P t892 = shuffled<0, 3>(t886, t891);
        // real block of 11
        const P t893 = t889 - t892;
        const P t894 = part<0>(t890);
        // real block of 11
        const P t895 = t894 - t888;
        const Q t896 = c[0] * t586;
        const P t897 = part<0>(t896);
        const P t898 = t895 - t897;
        const P t899 = part<1>(t896);
        const P t900 = shuffled<0, 3>(t891, t899);
        const P t901 = flipped<1, 0>(t900);
        // real block of 11
        const P t902 = t893 + t901;
        const P t903 = shuffled<0, 3>(t899, t673);
        const P t904 = t902 - t903;
        // real block of 11
        const Q t905 = c[6] * t680;
        const P t906 = part<0>(t905);
        const Q t907 = c[8] * t781;
        const P t908 = part<0>(t907);
        const P t909 = t906 + t908;
        const P t910 = part<1>(t907);
        const Q t911 = c[5] * t589;
        const P t912 = part<1>(t911);
        // real block of 11
        const P t913 = t910 + t912;
        const P t914 = part<0>(t911);
        // real block of 11
        const P t915 = t909 + t914;
        const Q t916 = c[7] * t678;
        const P t917 = part<1>(t916);
        // real block of 11
        const P t918 = t913 - t917;
        const P t919 = part<0>(t916);
        // real block of 11
        const P t920 = t915 - t919;
        const Q t921 = c[9] * t750;
        const P t922 = part<0>(t921);
        const P t923 = t920 - t922;
        const P t924 = part<1>(t905);
        // real block of 11
        const P t925 = t918 - t924;
        const P t926 = part<1>(t921);
        const P t927 = t925 - t926;
        // real block of 11
        const Q t928 = c[2] * t654;
        const P t929 = part<0>(t928);
        const P t930 = t687 + t929;
        const P t931 = part<1>(t685);
        const P t932 = part<1>(t928);
        const P t933 = shuffled<0, 3>(t881, t932);
        // real block of 11
        const P t934 = t931 + t933;
        // real block of 11
        const Q t935 = c[3] * t778;
        const P t936 = part<1>(t935);
        const P t937 = shuffled<0, 3>(t932, t936);
        // real block of 11
        const P t938 = t934 + t937;
        const P t939 = part<0>(t935);
        // real block of 11
        const P t940 = t930 + t939;
        const P t941 = shuffled<0, 3>(t936, t938);
        const Q t942 = c[1] * t752;
        const P t943 = part<1>(t942);
        const P t944 = shuffled<0, 3>(t938, t943);
        // real block of 11
        const P t945 = t941 - t944;
        const P t946 = part<0>(t942);
        // real block of 11
        const P t947 = t940 + t946;
        const Q t948 = c[4] * t586;
        const P t949 = part<0>(t948);
        const P t950 = t949 - t947;
        const P t951 = part<1>(t948);
        const P t952 = shuffled<0, 3>(t943, t951);
        const P t953 = flipped<0, 1>(t952);
        // real block of 11
        const P t954 = t945 + t953;
        const P t955 = shuffled<0, 3>(t951, t903);
        const P t956 = flipped<0, 1>(t955);
        const P t957 = t954 + t956;
        // real block of 11
        const Q t958 = c[7] * t680;
        const P t959 = part<0>(t958);
        const Q t960 = c[5] * t678;
        const P t961 = part<0>(t960);
        const P t962 = t959 - t961;
        const P t963 = part<1>(t960);
        const P t964 = part<1>(t958);
        // real block of 11
        const P t965 = t963 + t964;
        // real block of 11
        const Q t966 = c[9] * t781;
        const P t967 = part<0>(t966);
        const P t968 = t962 - t967;
        const P t969 = part<1>(t966);
        // real block of 11
        const P t970 = t965 + t969;
        // real block of 11
        const Q t971 = c[6] * t750;
        const P t972 = part<0>(t971);
        const P t973 = t968 - t972;
        const Q t974 = c[8] * t589;
        const P t975 = part<0>(t974);
        const P t976 = t973 - t975;
        const P t977 = part<1>(t971);
        // real block of 11
        const P t978 = t970 + t977;
        const P t979 = part<1>(t974);
        const P t980 = t978 + t979;
        // real block of 11
        const Q t981 = c[1] * t640;
        const P t982 = part<0>(t981);
        const P t983 = t681 + t982;
        const Q t984 = c[3] * t654;
        const P t985 = part<0>(t984);
        const P t986 = t985 - t983;
        const P t987 = part<1>(t981);
        const P t988 = part<1>(t984);
        const P t989 = shuffled<0, 3>(t933, t988);
        const P t990 = flipped<0, 1>(t989);
        // real block of 11
        const P t991 = t987 + t990;
        const P t992 = shuffled<0, 3>(t988, t991);
        // real block of 11
        const Q t993 = c[0] * t778;
        const P t994 = part<1>(t993);
        const P t995 = shuffled<0, 3>(t991, t994);
        // real block of 11
        const P t996 = t992 - t995;
        const P t997 = part<0>(t993);
        // real block of 11
        const P t998 = t986 + t997;
        const Q t999 = c[4] * t752;
        const P t1000 = part<0>(t999);
        const P t1001 = t998 + t1000;
        const P t1002 = part<1>(t999);
        const P t1003 = shuffled<0, 3>(t994, t1002);
        const P t1004 = flipped<1, 0>(t1003);
        // real block of 11
        const P t1005 = t996 + t1004;
        // real block of 11
        const Q t1006 = Q(c[2], c[2], c[2], -c[2]) * t586;
        const P t1007 = part<1>(t1006);
        const P t1008 = shuffled<0, 3>(t1002, t1007);
        // real block of 11
        const P t1009 = t1005 - t1008;
        // real block of 11
        const Q t1010 = t691 + t764;
        const Q t1011 = t1010 + t737;
        const Q t1012 = t1011 + t591;
        const Q t1013 = flipped<0, 0, 1, 0>(t647);
        const Q t1014 = t1012 + t1013;
        const Q t1015 = c[2] * t764;
        const Q t1016 = t694 - t1015;
        const Q t1017 = c[0] * t737;
        const Q t1018 = t1016 - t1017;
        const Q t1019 = c[1] * t591;
        const Q t1020 = t1018 - t1019;
        const Q t1021 = t1020 + t1013;
        const Q t1022 = c[8] * t698;
        const Q t1023 = c[7] * t766;
        const Q t1024 = c[6] * t592;
        const Q t1025 = shuffled<0, 5, 2, 7>(t1023, t1024);
        const Q t1026 = shuffled<0, 1, 6, 7>(t1023, t1025);
        const Q t1027 = t1022 + t1026;
        const Q t1028 = c[5] * t736;
        const Q t1029 = Q(c[9], c[9], c[9], -c[9]) * t688;
        const Q t1030 = shuffled<0, 5, 2, 7>(t1024, t1029);
        const Q t1031 = shuffled<0, 1, 6, 7>(t1028, t1030);
        const Q t1032 = t1027 + t1031;
        const Q t1033 = shuffled<0, 5, 2, 7>(t1029, t1023);
        const Q t1034 = shuffled<0, 1, 6, 7>(t1024, t1033);
        const Q t1035 = flipped<0, 0, 1, 1>(t1034);
        const Q t1036 = t1032 + t1035;
        const Q t1037 = shuffled<0, 1, 6, 7>(t1029, t1028);
        const Q t1038 = t1036 - t1037;
        const Q t1039 = c[1] * t764;
        const Q t1040 = t697 - t1039;
        const Q t1041 = c[2] * t737;
        const Q t1042 = t1040 - t1041;
        const Q t1043 = c[3] * t591;
        const Q t1044 = t1042 + t1043;
        const Q t1045 = t1044 + t1013;
        const Q t1046 = c[5] * t698;
        const Q t1047 = Q(-c[8], -c[8], c[8], c[8]) * t688;
        const Q t1048 = c[7] * t736;
        const Q t1049 = c[6] * t766;
        const Q t1050 = shuffled<0, 5, 2, 7>(t1048, t1049);
        const Q t1051 = shuffled<0, 1, 6, 7>(t1047, t1050);
        const Q t1052 = t1046 + t1051;
        const Q t1053 = shuffled<0, 5, 2, 7>(t1047, t1048);
        const Q t1054 = shuffled<0, 1, 6, 7>(t1049, t1053);
        const Q t1055 = flipped<0, 0, 0, 1>(t1054);
        const Q t1056 = t1052 - t1055;
        const Q t1057 = shuffled<0, 5, 2, 7>(t1049, t1047);
        const Q t1058 = shuffled<0, 1, 6, 7>(t1048, t1057);
        const Q t1059 = t1056 - t1058;
        const Q t1060 = c[9] * t592;
        const Q t1061 = t1059 - t1060;
        const Q t1062 = Q(c[1], c[1], -c[1], c[1]) * t690;
        const Q t1063 = t700 - t1062;
        const Q t1064 = flipped<0, 0, 1, 0>(t1063);
        const Q t1065 = c[4] * t764;
        const Q t1066 = t1064 + t1065;
        const Q t1067 = c[3] * t737;
        const Q t1068 = t1066 + t1067;
        const Q t1069 = c[0] * t591;
        const Q t1070 = t1068 - t1069;
        const Q t1071 = c[9] * t736;
        const Q t1072 = Q(c[7], c[7], -c[7], c[7]) * t688;
        const Q t1073 = c[8] * t766;
        const Q t1074 = shuffled<0, 5, 2, 7>(t1072, t1073);
        const Q t1075 = shuffled<0, 1, 6, 7>(t1071, t1074);
        const Q t1076 = c[5] * t592;
        const Q t1077 = t1075 + t1076;
        const Q t1078 = c[6] * t698;
        const Q t1079 = shuffled<0, 5, 2, 7>(t1078, t1072);
        const Q t1080 = shuffled<0, 1, 6, 7>(t1072, t1079);
        const Q t1081 = t1077 - t1080;
        const Q t1082 = shuffled<0, 5, 2, 7>(t1073, t1078);
        const Q t1083 = shuffled<0, 1, 6, 7>(t1078, t1082);
        const Q t1084 = t1081 - t1083;
        const Q t1085 = shuffled<0, 1, 6, 7>(t1073, t1071);
        const Q t1086 = t1084 - t1085;
        const Q t1087 = Q(c[2], c[2], -c[2], c[2]) * t690;
        const Q t1088 = t702 - t1087;
        const Q t1089 = flipped<0, 0, 1, 0>(t1088);
        const Q t1090 = c[3] * t764;
        const Q t1091 = t1089 + t1090;
        const Q t1092 = c[1] * t737;
        const Q t1093 = t1091 - t1092;
        const Q t1094 = c[4] * t591;
        const Q t1095 = t1093 + t1094;
        const Q t1096 = c[9] * t766;
        const Q t1097 = Q(c[5], c[5], -c[5], c[5]) * t688;
        const Q t1098 = shuffled<0, 1, 6, 7>(t1096, t1097);
        const Q t1099 = c[6] * t736;
        const Q t1100 = c[7] * t698;
        const Q t1101 = shuffled<0, 5, 2, 7>(t1096, t1100);
        const Q t1102 = shuffled<0, 1, 6, 7>(t1099, t1101);
        const Q t1103 = t1098 + t1102;
        const Q t1104 = shuffled<0, 5, 2, 7>(t1100, t1096);
        const Q t1105 = shuffled<0, 1, 6, 7>(t1097, t1104);
        const Q t1106 = flipped<0, 0, 0, 1>(t1105);
        const Q t1107 = t1103 - t1106;
        const Q t1108 = shuffled<0, 1, 6, 7>(t1100, t1099);
        const Q t1109 = flipped<0, 0, 0, 1>(t1108);
        const Q t1110 = t1107 - t1109;
        const Q t1111 = Q(c[8], c[8], c[8], -c[8]) * t592;
        const Q t1112 = t1110 - t1111;
        const Q t1113 = flipped<0, 0, 1, 0>(t704);
        const Q t1114 = c[3] * t690;
        const Q t1115 = t1113 + t1114;
        const Q t1116 = c[0] * t764;
        const Q t1117 = t1115 - t1116;
        const Q t1118 = c[4] * t737;
        const Q t1119 = t1117 + t1118;
        const Q t1120 = c[2] * t591;
        const Q t1121 = t1119 - t1120;
        const Q t1122 = c[5] * t766;
        const Q t1123 = c[8] * t736;
        const Q t1124 = shuffled<0, 1, 6, 7>(t1122, t1123);
        const Q t1125 = c[7] * t592;
        const Q t1126 = shuffled<0, 5, 2, 7>(t1122, t1125);
        const Q t1127 = shuffled<0, 1, 6, 7>(t1125, t1126);
        const Q t1128 = t1124 + t1127;
        const Q t1129 = Q(-c[6], -c[6], c[6], c[6]) * t688;
        const Q t1130 = flipped<1, 1, 0, 1>(t1129);
        const Q t1131 = shuffled<0, 5, 2, 7>(t1125, t1130);
        const Q t1132 = shuffled<0, 1, 6, 7>(t1129, t1131);
        const Q t1133 = t1128 + t1132;
        const Q t1134 = c[9] * t698;
        const Q t1135 = shuffled<0, 5, 2, 7>(t1130, t1134);
        const Q t1136 = shuffled<0, 1, 6, 7>(t1134, t1135);
        const Q t1137 = t1133 - t1136;
        const Q t1138 = flipped<1, 1, 0, 0>(t778);
        const Q t1139 = flipped<0, 0, 0, 1>(t665);
        // real block of 11
        const Q t1140 = t1138 + t1139;
        const Q t1141 = flipped<0, 0, 1, 0>(t752);
        const Q t1142 = t1140 + t1141;
        const Q t1143 = flipped<0, 0, 0, 1>(t586);
        const Q t1144 = t1142 + t1143;
        const Q t1145 = t1144 - t652;
        const Q t1146 = c[8] * t750;
        const Q t1147 = c[9] * t680;
        const Q t1148 = c[7] * t589;
        const Q t1149 = shuffled<0, 1, 6, 7>(t1147, t1148);
        const Q t1150 = t1146 + t1149;
        const Q t1151 = Q(c[6], c[6], -c[6], -c[6]) * t678;
        const Q t1152 = shuffled<0, 1, 6, 7>(t1148, t1151);
        const Q t1153 = t1150 + t1152;
        const Q t1154 = shuffled<0, 1, 6, 7>(t1151, t1147);
        const Q t1155 = t1153 - t1154;
        const P x0 = io.pair(0);
        const P t1156 = part<0>(t431);
        // complex block of 47
        const P t1157 = c[90] * t1156;
        const P t1158 = x0 - t1157;
        const Q t1159 = shuffled<0, 5, 2, 7>(t1134, t1122);
        const Q t1160 = shuffled<0, 1, 6, 7>(t1123, t1159);
        // real block of 11
        const Q t1161 = t1137 - t1160;
        // spectrum block of 23, multiplier 2
        const Q t1162 = c[28] * t1121;
        const Q t1163 = c[29] * t1161;
        const Q t1164 = t1162 - t1163;
        const Q t1165 = c[28] * t1161;
        const Q t1166 = c[29] * t1121;
        const Q t1167 = t1165 + t1166;
        const Q t1168 = joined(t1001, t1009);
        const Q t1169 = shuffled<0, 5, 2, 7>(t1006, t652);
        const Q t1170 = shuffled<0, 1, 6, 7>(t1006, t1169);
        // real block of 11
        const Q t1171 = t1168 - t1170;
        const Q t1172 = c[5] * t781;
        const Q t1173 = t1155 - t1172;
        // spectrum block of 23, multiplier 2
        const Q t1174 = c[14] * t1173;
        const Q t1175 = c[15] * t1171;
        const Q t1176 = t1174 - t1175;
        const Q t1177 = c[15] * t1173;
        const Q t1178 = c[14] * t1171;
        const Q t1179 = t1177 + t1178;
        const P t1180 = part<1>(t431);
        const P t1181 = shuffled<1, 0>(t1180);
        // complex block of 47
        const P t1182 = c[91] * t1181;
        const Q t1183 = joined(t1158, t1182);
        // spectrum block of 23, multiplier 2
        const Q t1184 = Q(c[42], c[42], c[42], -c[42]) * t1014;
        const Q t1185 = t1183 - t1184;
        const Q t1186 = c[24] * t1021;
        const Q t1187 = c[25] * t1038;
        const Q t1188 = t1186 - t1187;
        const Q t1189 = c[27] * t1061;
        const Q t1190 = c[26] * t1045;
        const Q t1191 = t1189 - t1190;
        // spectrum block of 11, multiplier 2
        const Q t1192 = t1188 + t1191;
        const Q t1193 = c[3] * t1188;
        const Q t1194 = c[4] * t1191;
        const Q t1195 = t1193 + t1194;
        const Q t1196 = c[4] * t1188;
        const Q t1197 = c[0] * t1191;
        const Q t1198 = t1196 - t1197;
        const Q t1199 = Q(c[2], c[2], c[2], -c[2]) * t1188;
        const Q t1200 = t1185 - t1199;
        const Q t1201 = Q(c[0], c[0], c[0], -c[0]) * t1188;
        const Q t1202 = t1185 - t1201;
        const Q t1203 = Q(c[1], c[1], c[1], -c[1]) * t1188;
        const Q t1204 = t1185 - t1203;
        // spectrum block of 23, multiplier 2
        const Q t1205 = c[30] * t1086;
        const Q t1206 = c[31] * t1070;
        const Q t1207 = t1205 - t1206;
        const Q t1208 = c[32] * t1095;
        const Q t1209 = Q(c[33], c[33], c[33], -c[33]) * t1112;
        const Q t1210 = t1208 - t1209;
        // spectrum block of 11, multiplier 2
        const Q t1211 = t1192 + t1207;
        const Q t1212 = t1211 + t1210;
        const Q t1213 = c[2] * t1207;
        const Q t1214 = t1195 - t1213;
        const Q t1215 = c[0] * t1210;
        const Q t1216 = t1214 - t1215;
        const Q t1217 = c[1] * t1207;
        const Q t1218 = t1198 - t1217;
        const Q t1219 = c[2] * t1210;
        const Q t1220 = t1218 - t1219;
        const Q t1221 = Q(c[1], c[1], c[1], -c[1]) * t1191;
        const Q t1222 = t1200 - t1221;
        const Q t1223 = c[4] * t1207;
        const Q t1224 = flipped<0, 0, 0, 1>(t1222);
        const Q t1225 = t1223 + t1224;
        const Q t1226 = Q(c[2], c[2], c[2], -c[2]) * t1191;
        const Q t1227 = t1202 - t1226;
        const Q t1228 = c[3] * t1207;
        const Q t1229 = flipped<0, 0, 0, 1>(t1227);
        const Q t1230 = t1228 + t1229;
        const Q t1231 = c[3] * t1191;
        const Q t1232 = flipped<0, 0, 0, 1>(t1204);
        const Q t1233 = t1231 + t1232;
        const Q t1234 = c[0] * t1207;
        const Q t1235 = t1233 - t1234;
        // spectrum block of 23, multiplier 2
        const Q t1236 = c[24] * t1038;
        const Q t1237 = c[25] * t1021;
        const Q t1238 = t1236 + t1237;
        const Q t1239 = c[26] * t1061;
        const Q t1240 = c[27] * t1045;
        const Q t1241 = t1239 + t1240;
        const Q t1242 = c[31] * t1086;
        const Q t1243 = c[30] * t1070;
        const Q t1244 = t1242 + t1243;
        // spectrum block of 11, multiplier 2
        const Q t1245 = c[9] * t1238;
        const Q t1246 = c[8] * t1241;
        const Q t1247 = t1245 - t1246;
        const Q t1248 = c[7] * t1244;
        const Q t1249 = t1247 - t1248;
        const Q t1250 = c[8] * t1238;
        const Q t1251 = c[5] * t1241;
        const Q t1252 = t1250 - t1251;
        const Q t1253 = c[6] * t1244;
        const Q t1254 = t1252 + t1253;
        const Q t1255 = c[7] * t1238;
        const Q t1256 = c[6] * t1241;
        const Q t1257 = t1255 + t1256;
        const Q t1258 = c[8] * t1244;
        const Q t1259 = t1257 + t1258;
        const Q t1260 = c[5] * t1238;
        const Q t1261 = c[7] * t1241;
        const Q t1262 = t1260 + t1261;
        const Q t1263 = c[9] * t1244;
        const Q t1264 = t1262 - t1263;
        const Q t1265 = c[6] * t1238;
        const Q t1266 = c[9] * t1241;
        const Q t1267 = t1265 + t1266;
        const Q t1268 = c[5] * t1244;
        const Q t1269 = t1267 - t1268;
        const Q t1270 = joined(t976, t980);
        // spectrum block of 23, multiplier 2
        const Q t1271 = c[18] * t1270;
        const Q t1272 = joined(t950, t957);
        const Q t1273 = Q(c[19], c[19], -c[19], -c[19]) * t1272;
        const Q t1274 = t1271 + t1273;
        const Q t1275 = joined(t923, t927);
        const Q t1276 = c[20] * t1275;
        const Q t1277 = joined(t898, t904);
        const Q t1278 = c[21] * t1277;
        const Q t1279 = t1276 - t1278;
        const Q t1280 = joined(t850, t852);
        const Q t1281 = c[17] * t1280;
        const Q t1282 = joined(t873, t875);
        const Q t1283 = c[16] * t1282;
        const Q t1284 = t1281 - t1283;
        const Q t1285 = joined(t802, t805);
        const Q t1286 = c[22] * t1285;
        const Q t1287 = joined(t826, t828);
        const Q t1288 = c[23] * t1287;
        const Q t1289 = t1286 + t1288;
        // spectrum block of 11, multiplier 2
        const Q t1290 = t1289 + t1284;
        const Q t1291 = c[3] * t1289;
        const Q t1292 = c[4] * t1284;
        const Q t1293 = t1291 + t1292;
        const Q t1294 = c[4] * t1289;
        const Q t1295 = c[0] * t1284;
        const Q t1296 = t1294 - t1295;
        // spectrum block of 23, multiplier 2
        const Q t1297 = c[45] * t1145;
        // spectrum block of 11, multiplier 2
        const Q t1298 = c[2] * t1289;
        const Q t1299 = t1297 + t1298;
        const Q t1300 = c[0] * t1289;
        const Q t1301 = t1297 + t1300;
        const Q t1302 = c[1] * t1289;
        const Q t1303 = t1297 + t1302;
        const Q t1304 = t1290 + t1279;
        const Q t1305 = flipped<1, 1, 0, 0>(t1274);
        const Q t1306 = t1304 + t1305;
        const Q t1307 = c[2] * t1279;
        const Q t1308 = t1293 - t1307;
        const Q t1309 = Q(c[0], c[0], -c[0], -c[0]) * t1274;
        const Q t1310 = t1308 + t1309;
        const Q t1311 = c[1] * t1279;
        const Q t1312 = t1296 - t1311;
        const Q t1313 = Q(c[2], c[2], -c[2], -c[2]) * t1274;
        const Q t1314 = t1312 + t1313;
        const Q t1315 = c[1] * t1284;
        const Q t1316 = t1299 + t1315;
        const Q t1317 = c[4] * t1279;
        const Q t1318 = t1317 - t1316;
        const Q t1319 = c[2] * t1284;
        const Q t1320 = t1301 + t1319;
        const Q t1321 = c[3] * t1279;
        const Q t1322 = t1321 - t1320;
        const Q t1323 = c[3] * t1284;
        const Q t1324 = t1323 - t1303;
        const Q t1325 = c[0] * t1279;
        const Q t1326 = t1324 - t1325;
        // spectrum block of 23, multiplier 2
        const Q t1327 = c[19] * t1270;
        const Q t1328 = Q(-c[18], -c[18], c[18], c[18]) * t1272;
        const Q t1329 = t1327 + t1328;
        const Q t1330 = c[21] * t1275;
        const Q t1331 = c[20] * t1277;
        const Q t1332 = t1330 + t1331;
        const Q t1333 = c[17] * t1282;
        const Q t1334 = c[16] * t1280;
        const Q t1335 = t1333 + t1334;
        const Q t1336 = c[23] * t1285;
        const Q t1337 = c[22] * t1287;
        const Q t1338 = t1336 - t1337;
        // spectrum block of 11, multiplier 2
        const Q t1339 = c[8] * t1335;
        const Q t1340 = c[9] * t1338;
        const Q t1341 = t1339 - t1340;
        const Q t1342 = c[7] * t1332;
        const Q t1343 = t1341 - t1342;
        const Q t1344 = c[5] * t1335;
        const Q t1345 = c[8] * t1338;
        const Q t1346 = t1344 - t1345;
        const Q t1347 = c[6] * t1332;
        const Q t1348 = t1346 + t1347;
        const Q t1349 = c[7] * t1338;
        const Q t1350 = c[6] * t1335;
        const Q t1351 = t1349 + t1350;
        const Q t1352 = c[8] * t1332;
        const Q t1353 = t1352 - t1351;
        const Q t1354 = c[5] * t1338;
        const Q t1355 = c[7] * t1335;
        const Q t1356 = t1354 + t1355;
        const Q t1357 = c[9] * t1332;
        const Q t1358 = t1356 + t1357;
        const Q t1359 = c[6] * t1338;
        const Q t1360 = c[9] * t1335;
        const Q t1361 = t1359 + t1360;
        const Q t1362 = c[5] * t1332;
        const Q t1363 = t1361 + t1362;
        // spectrum block of 23, multiplier 2
        const Q t1364 = c[33] * t1095;
        const Q t1365 = Q(c[32], c[32], c[32], -c[32]) * t1112;
        const Q t1366 = t1364 + t1365;
        const Q t1367 = flipped<0, 0, 0, 1>(t1183);
        const Q t1368 = t1014 + t1367;
        // spectrum block of 11, multiplier 2
        const Q t1369 = t1212 + t1164;
        const Q t1370 = flipped<0, 0, 0, 1>(t1185);
        const Q t1371 = t1369 + t1370;
        // spectrum block of 11, multiplier 2
        const Q t1372 = t1306 + t1176;
        const Q t1373 = t1372 - t1297;
        // spectrum block of 2
        const Q t1374 = t1371 + t1373;
        const Q t1375 = shuffled<0, 1, 4, 5>(t1368, t1374);
        const Q t1376 = shuffled<2, 3, 6, 7>(t1368, t1374);
        // spectrum block of 2
        const Q t1377 = t1375 + t1376;
        io.pairs(1, 32, t1377);
        const Q t1378 = t1375 - t1376;
        io.pairs(46, 15, t1378);
        // spectrum block of 2
        const Q t1379 = t1371 - t1373;
        const P t1380 = part<0>(t1379);
        const P t1381 = part<1>(t1379);
        // spectrum block of 2
        const P t1382 = t1380 + t1381;
        io.pair(25, t1382);
        const P t1383 = t1380 - t1381;
        io.pair(22, t1383);
        // spectrum block of 11, multiplier 2
        const Q t1384 = c[1] * t1164;
        const Q t1385 = t1216 - t1384;
        const Q t1386 = t1385 + t1370;
        const Q t1387 = c[5] * t1366;
        const Q t1388 = t1249 + t1387;
        const Q t1389 = c[6] * t1167;
        const Q t1390 = t1388 + t1389;
        const Q t1391 = t1386 - t1390;
        const Q t1392 = t1386 + t1390;
        const Q t1393 = c[3] * t1164;
        const Q t1394 = t1220 + t1393;
        const Q t1395 = t1394 + t1370;
        const Q t1396 = c[7] * t1366;
        const Q t1397 = t1254 - t1396;
        const Q t1398 = c[9] * t1167;
        const Q t1399 = t1397 - t1398;
        const Q t1400 = t1395 - t1399;
        const Q t1401 = t1395 + t1399;
        const Q t1402 = c[3] * t1210;
        const Q t1403 = t1225 + t1402;
        const Q t1404 = c[0] * t1164;
        const Q t1405 = t1403 - t1404;
        const Q t1406 = c[9] * t1366;
        const Q t1407 = t1259 + t1406;
        const Q t1408 = c[5] * t1167;
        const Q t1409 = t1407 + t1408;
        const Q t1410 = t1405 - t1409;
        const Q t1411 = t1405 + t1409;
        const Q t1412 = c[1] * t1210;
        const Q t1413 = t1230 - t1412;
        const Q t1414 = c[4] * t1164;
        const Q t1415 = t1413 + t1414;
        const Q t1416 = c[6] * t1366;
        const Q t1417 = t1264 + t1416;
        const Q t1418 = c[8] * t1167;
        const Q t1419 = t1417 - t1418;
        const Q t1420 = t1415 - t1419;
        const Q t1421 = t1415 + t1419;
        const Q t1422 = c[4] * t1210;
        const Q t1423 = t1235 + t1422;
        const Q t1424 = c[2] * t1164;
        const Q t1425 = t1423 - t1424;
        const Q t1426 = c[8] * t1366;
        const Q t1427 = t1269 - t1426;
        const Q t1428 = c[7] * t1167;
        const Q t1429 = t1427 + t1428;
        const Q t1430 = t1425 - t1429;
        const Q t1431 = t1425 + t1429;
        // spectrum block of 11, multiplier 2
        const Q t1432 = c[1] * t1176;
        const Q t1433 = t1310 - t1432;
        const Q t1434 = t1433 - t1297;
        const Q t1435 = Q(-c[5], -c[5], c[5], c[5]) * t1329;
        const Q t1436 = t1343 + t1435;
        const Q t1437 = c[6] * t1179;
        const Q t1438 = t1436 - t1437;
        const Q t1439 = t1434 - t1438;
        const Q t1440 = t1434 + t1438;
        const Q t1441 = c[3] * t1176;
        const Q t1442 = t1314 + t1441;
        const Q t1443 = t1442 - t1297;
        const Q t1444 = Q(c[7], c[7], -c[7], -c[7]) * t1329;
        const Q t1445 = t1348 + t1444;
        const Q t1446 = c[9] * t1179;
        const Q t1447 = t1445 + t1446;
        const Q t1448 = t1443 - t1447;
        const Q t1449 = t1443 + t1447;
        const Q t1450 = Q(-c[3], -c[3], c[3], c[3]) * t1274;
        const Q t1451 = t1318 + t1450;
        const Q t1452 = c[0] * t1176;
        const Q t1453 = t1451 - t1452;
        const Q t1454 = Q(-c[9], -c[9], c[9], c[9]) * t1329;
        const Q t1455 = t1353 + t1454;
        const Q t1456 = c[5] * t1179;
        const Q t1457 = t1455 - t1456;
        const Q t1458 = t1453 - t1457;
        const Q t1459 = t1453 + t1457;
        const Q t1460 = Q(c[1], c[1], -c[1], -c[1]) * t1274;
        const Q t1461 = t1322 + t1460;
        const Q t1462 = c[4] * t1176;
        const Q t1463 = t1461 + t1462;
        const Q t1464 = c[6] * t1329;
        const Q t1465 = flipped<0, 0, 1, 1>(t1358);
        const Q t1466 = t1464 + t1465;
        const Q t1467 = flipped<1, 1, 0, 0>(t1466);
        const Q t1468 = c[8] * t1179;
        const Q t1469 = t1467 + t1468;
        const Q t1470 = t1463 - t1469;
        const Q t1471 = t1463 + t1469;
        const Q t1472 = Q(-c[4], -c[4], c[4], c[4]) * t1274;
        const Q t1473 = t1326 + t1472;
        const Q t1474 = c[2] * t1176;
        const Q t1475 = t1473 - t1474;
        const Q t1476 = flipped<1, 1, 0, 0>(t1363);
        const Q t1477 = c[8] * t1329;
        const Q t1478 = t1476 + t1477;
        const Q t1479 = Q(-c[7], -c[7], c[7], c[7]) * t1179;
        const Q t1480 = t1478 + t1479;
        const Q t1481 = flipped<1, 1, 0, 0>(t1480);
        const Q t1482 = t1475 + t1481;
        const Q t1483 = t1475 - t1481;
        // spectrum block of 2
        const Q t1484 = t1400 + t1448;
        // spectrum block of 2
        const Q t1485 = t1411 + t1459;
        const Q t1486 = shuffled<0, 1, 4, 5>(t1484, t1485);
        const Q t1487 = shuffled<2, 3, 6, 7>(t1484, t1485);
        // spectrum block of 2
        const Q t1488 = t1486 + t1487;
        io.pairs(28, 3, t1488);
        const Q t1489 = t1486 - t1487;
        io.pairs(19, 44, t1489);
        // spectrum block of 2
        const Q t1490 = t1400 - t1448;
        // spectrum block of 2
        const Q t1491 = t1411 - t1459;
        const Q t1492 = shuffled<0, 1, 4, 5>(t1491, t1490);
        const Q t1493 = shuffled<2, 3, 6, 7>(t1491, t1490);
        // spectrum block of 2
        const Q t1494 = t1492 + t1493;
        io.pairs(16, 42, t1494);
        const Q t1495 = t1492 - t1493;
        io.pairs(31, 5, t1495);
        // spectrum block of 2
        const Q t1496 = t1420 + t1470;
        // spectrum block of 2
        const Q t1497 = t1410 - t1458;
        const Q t1498 = shuffled<0, 1, 4, 5>(t1496, t1497);
        const Q t1499 = shuffled<2, 3, 6, 7>(t1496, t1497);
        // spectrum block of 2
        const Q t1500 = t1498 + t1499;
        io.pairs(34, 7, t1500);
        const Q t1501 = t1498 - t1499;
        io.pairs(13, 40, t1501);
        // spectrum block of 2
        const Q t1502 = t1420 - t1470;
        // spectrum block of 2
        const Q t1503 = t1410 + t1458;
        const Q t1504 = shuffled<0, 1, 4, 5>(t1503, t1502);
        const Q t1505 = shuffled<2, 3, 6, 7>(t1503, t1502);
        // spectrum block of 2
        const Q t1506 = t1504 + t1505;
        io.pairs(27, 18, t1506);
        const Q t1507 = t1504 - t1505;
        io.pairs(20, 29, t1507);
        // spectrum block of 2
        const Q t1508 = t1431 + t1483;
        // spectrum block of 2
        const Q t1509 = t1401 + t1449;
        const Q t1510 = shuffled<0, 1, 4, 5>(t1509, t1508);
        const Q t1511 = shuffled<2, 3, 6, 7>(t1509, t1508);
        // spectrum block of 2
        const Q t1512 = t1510 + t1511;
        io.pairs(37, 9, t1512);
        const Q t1513 = t1510 - t1511;
        io.pairs(10, 38, t1513);
        // spectrum block of 2
        const Q t1514 = t1431 - t1483;
        // spectrum block of 2
        const Q t1515 = t1401 - t1449;
        const Q t1516 = shuffled<0, 1, 4, 5>(t1514, t1515);
        const Q t1517 = shuffled<2, 3, 6, 7>(t1514, t1515);
        // spectrum block of 2
        const Q t1518 = t1516 + t1517;
        io.pairs(21, 14, t1518);
        const Q t1519 = t1516 - t1517;
        io.pairs(26, 33, t1519);
        // spectrum block of 2
        const Q t1520 = t1392 + t1440;
        // spectrum block of 2
        const Q t1521 = t1421 - t1471;
        const Q t1522 = shuffled<0, 1, 4, 5>(t1520, t1521);
        const Q t1523 = shuffled<2, 3, 6, 7>(t1520, t1521);
        // spectrum block of 2
        const Q t1524 = t1522 + t1523;
        io.pairs(12, 8, t1524);
        const Q t1525 = t1522 - t1523;
        io.pairs(35, 39, t1525);
        // spectrum block of 2
        const Q t1526 = t1392 - t1440;
        // spectrum block of 2
        const Q t1527 = t1421 + t1471;
        const Q t1528 = shuffled<0, 1, 4, 5>(t1527, t1526);
        const Q t1529 = shuffled<2, 3, 6, 7>(t1527, t1526);
        // spectrum block of 2
        const Q t1530 = t1528 + t1529;
        io.pairs(6, 4, t1530);
        const Q t1531 = t1528 - t1529;
        io.pairs(41, 43, t1531);
        // spectrum block of 2
        const Q t1532 = t1391 + t1439;
        // spectrum block of 2
        const Q t1533 = t1430 + t1482;
        const Q t1534 = shuffled<0, 1, 4, 5>(t1533, t1532);
        const Q t1535 = shuffled<2, 3, 6, 7>(t1533, t1532);
        // spectrum block of 2
        const Q t1536 = t1534 + t1535;
        io.pairs(36, 24, t1536);
        const Q t1537 = t1534 - t1535;
        io.pairs(11, 23, t1537);
        // spectrum block of 2
        const Q t1538 = t1391 - t1439;
        // spectrum block of 2
        const Q t1539 = t1430 - t1482;
        const Q t1540 = shuffled<0, 1, 4, 5>(t1538, t1539);
        const Q t1541 = shuffled<2, 3, 6, 7>(t1538, t1539);
        // spectrum block of 2
        const Q t1542 = t1540 + t1541;
        io.pairs(2, 17, t1542);
        const Q t1543 = t1540 - t1541;
        io.pairs(45, 30, t1543);
        // complex block of 47
        const P t1544 = x0 + t1156;
        io.pair(0, t1544);
    }
};

}  // namespace zulg
