// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 47.
// Hartley transform of 47 points, form F; two lanes to a register.
// 413 sums, 285 differences, 550 products of registers, which do the 2411 steps of the graph, those with
// `scale` included; 163 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<47> {
    static constexpr int steps = 2411;  // with `scale`
    static constexpr double inverseRoot = 0.14586499149789456;  // 1/sqrt(47), for `scale`
    static constexpr double constants[] = {
        0.41541501300188644,  // c[0]: cos 2 pi 2/11
        0.6548607339452851,  // c[1]: -cos 2 pi 18/11
        0.9594929736144974,  // c[2]: -cos 2 pi 6/11
        0.14231483827328514,  // c[3]: -cos 2 pi 8/11
        0.8412535328311812,  // c[4]: cos 2 pi 12/11
        0.7557495743542583,  // c[5]: -sin 2 pi 18/11
        0.28173255684142967,  // c[6]: -sin 2 pi 6/11
        0.9898214418809327,  // c[7]: -sin 2 pi 8/11
        0.9096319953545183,  // c[8]: sin 2 pi 2/11
        0.5406408174555976,  // c[9]: sin 2 pi 12/11
        0.30901699437494745,  // c[10]: cos 2 pi 1/5
        0.8090169943749475,  // c[11]: -cos 2 pi 3/5
        0.9510565162951535,  // c[12]: sin 2 pi 1/5
        0.5877852522924731,  // c[13]: -sin 2 pi 3/5
        0.635213297150478,  // c[14]: -Q[1] of 11
        0.19106037559687397,  // c[15]: -P[1] of 11
        0.5272211128649671,  // c[16]: P[2] of 11
        0.4025393125514894,  // c[17]: Q[2] of 11
        0.4262349587304204,  // c[18]: Q[3] of 11
        0.5082556049431003,  // c[19]: -P[3] of 11
        0.41403241996621415,  // c[20]: P[4] of 11
        0.5182443007085755,  // c[21]: Q[4] of 11
        0.17418154463549565,  // c[22]: -P[1] of 23
        0.39967916400094217,  // c[23]: -Q[1] of 23
        0.4130101145562366,  // c[24]: P[2] of 23
        0.1396613400420585,  // c[25]: Q[2] of 23
        0.2936565344532715,  // c[26]: P[3] of 23
        0.3222553093449257,  // c[27]: -Q[3] of 23
        0.07284077652875139,  // c[28]: -P[4] of 23
        0.42985679697172136,  // c[29]: -Q[4] of 23
        0.4166015292602189,  // c[30]: -P[5] of 23
        0.12855275355334153,  // c[31]: -Q[5] of 23
        0.3397700700904962,  // c[32]: -Q[6] of 23
        0.2732012886111602,  // c[33]: -P[6] of 23
        0.1863662746045921,  // c[34]: P[7] of 23
        0.3941449686576057,  // c[35]: Q[7] of 23
        0.4322477411542684,  // c[36]: P[8] of 23
        0.05696081894716527,  // c[37]: Q[8] of 23
        0.15475065017493012,  // c[38]: Q[9] of 23
        0.4075964682115579,  // c[39]: -P[9] of 23
        0.4006581594304406,  // c[40]: P[10] of 23
        0.1719176660785936,  // c[41]: Q[10] of 23
        0.045454545454545456,  // c[42]: 1/22
        0.1,  // c[43]: 1/10
        0.33166247903553997,  // c[44]: -beta of 11
        0.21799234196875997,  // c[45]: -beta of 23
        0.28804350746847646,  // c[46]: P[1] of 47
        0.07666693363263027,  // c[47]: -Q[1] of 47
        0.008832023771285981,  // c[48]: -P[2] of 47
        0.29794106172777834,  // c[49]: -Q[2] of 47
        0.2842707357056497,  // c[50]: Q[3] of 47
        0.08964948259048153,  // c[51]: P[3] of 47
        0.05154770209002698,  // c[52]: P[4] of 47
        0.29358084971028037,  // c[53]: -Q[4] of 47
        0.14044130913272984,  // c[54]: P[5] of 47
        0.2629127604291154,  // c[55]: -Q[5] of 47
        0.15748304001523897,  // c[56]: P[6] of 47
        0.2530730586509181,  // c[57]: Q[6] of 47
        0.19511817463101316,  // c[58]: -P[7] of 47
        0.2253348149666044,  // c[59]: -Q[7] of 47
        0.2909715633752674,  // c[60]: Q[8] of 47
        0.0646717110823977,  // c[61]: -P[8] of 47
        0.1703926151559494,  // c[62]: P[9] of 47
        0.24456745001673655,  // c[63]: -Q[9] of 47
        0.29805497904125694,  // c[64]: P[10] of 47
        0.003179681758961217,  // c[65]: -Q[10] of 47
        0.2980701900263497,  // c[66]: -P[11] of 47
        0.001021139083650161,  // c[67]: Q[11] of 47
        0.2269877535073196,  // c[68]: P[12] of 47
        0.19319275520855517,  // c[69]: Q[12] of 47
        0.27472693761815065,  // c[70]: P[13] of 47
        0.11563732379437514,  // c[71]: -Q[13] of 47
        0.23836550985857274,  // c[72]: Q[14] of 47
        0.1789658196897806,  // c[73]: P[14] of 47
        0.14112956895447787,  // c[74]: Q[15] of 47
        0.2625439499857037,  // c[75]: P[15] of 47
        0.06103657603519695,  // c[76]: P[16] of 47
        0.29175574937483584,  // c[77]: Q[16] of 47
        0.29791486856558863,  // c[78]: -P[17] of 47
        0.00967532918925448,  // c[79]: Q[17] of 47
        0.2977690620997712,  // c[80]: P[18] of 47
        0.01343378441076761,  // c[81]: -Q[18] of 47
        0.20849132949956667,  // c[82]: -P[19] of 47
        0.2130217041310005,  // c[83]: Q[19] of 47
        0.19315799475712486,  // c[84]: -P[20] of 47
        0.22701733407116498,  // c[85]: -Q[20] of 47
        0.061064911787258154,  // c[86]: -P[21] of 47
        0.2917498199755859,  // c[87]: Q[21] of 47
        0.297974179874349,  // c[88]: Q[22] of 47
        0.007633415721779962,  // c[89]: P[22] of 47
        0.06955203016683642,  // c[90]: -P[1] of 23
        0.4304011613922187,  // c[91]: -Q[1] of 23
        0.04453017869194607,  // c[92]: P[2] of 23
        0.43370463199482034,  // c[93]: Q[2] of 23
        0.33652924658242556,  // c[94]: Q[3] of 23
        0.27718353274096963,  // c[95]: -P[3] of 23
        0.22644695169903334,  // c[96]: Q[4] of 23
        0.37256465572342584,  // c[97]: P[4] of 23
        0.43594373606982356,  // c[98]: -P[5] of 23
        0.005975249750696167,  // c[99]: Q[5] of 23
        0.4029766924691319,  // c[100]: Q[6] of 23
        0.16641042622004737,  // c[101]: P[6] of 23
        0.3989562961623703,  // c[102]: -Q[7] of 23
        0.17583093692664623,  // c[103]: -P[7] of 23
        0.005134227435360646,  // c[104]: -P[8] of 23
        0.43595445213547385,  // c[105]: -Q[8] of 23
        0.43504853203320293,  // c[106]: Q[9] of 23
        0.028555549440596593,  // c[107]: P[9] of 23
        0.4300007996022861,  // c[108]: P[10] of 23
        0.07198581089002037,  // c[109]: -Q[10] of 23
        0.021739130434782608,  // c[110]: 1/46
        0.14903596957393575,  // c[111]: -beta of 47
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x25_22 = io.in(25, 22);
        const P x32_15 = io.in(32, 15);
        // real block of 2
        const P t0 = x25_22 + x32_15;
        const P t1 = x25_22 - x32_15;
        const P x14_33 = io.in(14, 33);
        const P x37_10 = io.in(37, 10);
        // real block of 2
        const P t2 = x14_33 + x37_10;
        const P t3 = x14_33 - x37_10;
        const P x8_39 = io.in(8, 39);
        const P x6_41 = io.in(6, 41);
        // real block of 2
        const P t4 = x8_39 + x6_41;
        const P t5 = x8_39 - x6_41;
        const P x17_30 = io.in(17, 30);
        const P x36_11 = io.in(36, 11);
        // real block of 2
        const P t6 = x17_30 + x36_11;
        const P t7 = x17_30 - x36_11;
        const P x7_40 = io.in(7, 40);
        const P x27_20 = io.in(27, 20);
        // real block of 2
        const P t8 = x7_40 + x27_20;
        const P t9 = x7_40 - x27_20;
        const P x2_45 = io.in(2, 45);
        const P x24_23 = io.in(24, 23);
        // real block of 2
        const P t10 = x2_45 + x24_23;
        const P t11 = x2_45 - x24_23;
        const P x4_43 = io.in(4, 43);
        const P x12_35 = io.in(12, 35);
        // real block of 2
        const P t12 = x4_43 + x12_35;
        const P t13 = x4_43 - x12_35;
        const P x16_31 = io.in(16, 31);
        const P x3_44 = io.in(3, 44);
        // real block of 2
        const P t14 = x16_31 + x3_44;
        const P t15 = x16_31 - x3_44;
        const P x21_26 = io.in(21, 26);
        const P x9_38 = io.in(9, 38);
        // real block of 2
        const P t16 = x21_26 + x9_38;
        const P t17 = x21_26 - x9_38;
        const P x18_29 = io.in(18, 29);
        const P x34_13 = io.in(34, 13);
        // real block of 2
        const P t18 = x18_29 + x34_13;
        const P t19 = x18_29 - x34_13;
        const P x42_5 = io.in(42, 5);
        const P x28_19 = io.in(28, 19);
        // real block of 2
        const P t20 = x42_5 + x28_19;
        const P t21 = x42_5 - x28_19;
        // real block of 11, multiplier 2
        const P t22 = t2 + t20;
        const P t23 = t2 - t20;
        const P t24 = t18 + t4;
        const P t25 = t18 - t4;
        const P t26 = t6 + t16;
        const P t27 = t6 - t16;
        const P t28 = t8 + t14;
        const P t29 = t8 - t14;
        const P t30 = t12 + t10;
        const P t31 = t12 - t10;
        const P t32 = t22 + t24;
        const P t33 = t32 + t26;
        const P t34 = t33 + t28;
        const P t35 = t34 + t30;
        const P t36 = t35 + t0;
        const P t37 = c[0] * t22;
        const P t38 = c[1] * t24;
        const P t39 = t37 - t38;
        const P t40 = c[2] * t26;
        const P t41 = t39 - t40;
        const P t42 = c[3] * t28;
        const P t43 = t41 - t42;
        const P t44 = c[4] * t30;
        const P t45 = t43 + t44;
        const P t46 = t45 + t0;
        const P t47 = c[5] * t25;
        const P t48 = c[6] * t27;
        const P t49 = t47 + t48;
        const P t50 = c[7] * t29;
        const P t51 = t49 + t50;
        const P t52 = c[8] * t23;
        const P t53 = t51 - t52;
        const P t54 = c[9] * t31;
        const P t55 = t53 - t54;
        const P t56 = c[1] * t22;
        const P t57 = t0 - t56;
        const P t58 = c[3] * t24;
        const P t59 = t57 - t58;
        const P t60 = c[4] * t26;
        const P t61 = t59 + t60;
        const P t62 = c[2] * t28;
        const P t63 = t61 - t62;
        const P t64 = c[0] * t30;
        const P t65 = t63 + t64;
        const P t66 = c[5] * t23;
        const P t67 = c[7] * t25;
        const P t68 = t66 + t67;
        const P t69 = c[9] * t27;
        const P t70 = t68 + t69;
        const P t71 = c[6] * t29;
        const P t72 = t70 + t71;
        const P t73 = c[8] * t31;
        const P t74 = t72 + t73;
        const P t75 = c[2] * t22;
        const P t76 = t0 - t75;
        const P t77 = c[4] * t24;
        const P t78 = t76 + t77;
        const P t79 = c[1] * t26;
        const P t80 = t78 - t79;
        const P t81 = c[0] * t28;
        const P t82 = t80 + t81;
        const P t83 = c[3] * t30;
        const P t84 = t82 - t83;
        const P t85 = c[6] * t23;
        const P t86 = c[9] * t25;
        const P t87 = t85 + t86;
        const P t88 = c[5] * t27;
        const P t89 = t87 + t88;
        const P t90 = c[8] * t29;
        const P t91 = t89 - t90;
        const P t92 = c[7] * t31;
        const P t93 = t91 - t92;
        const P t94 = c[3] * t22;
        const P t95 = t0 - t94;
        const P t96 = c[2] * t24;
        const P t97 = t95 - t96;
        const P t98 = c[0] * t26;
        const P t99 = t97 + t98;
        const P t100 = c[4] * t28;
        const P t101 = t99 + t100;
        const P t102 = c[1] * t30;
        const P t103 = t101 - t102;
        const P t104 = c[7] * t23;
        const P t105 = c[6] * t25;
        const P t106 = t104 + t105;
        const P t107 = c[9] * t29;
        const P t108 = t106 + t107;
        const P t109 = c[8] * t27;
        const P t110 = t108 - t109;
        const P t111 = c[5] * t31;
        const P t112 = t110 - t111;
        const P t113 = c[4] * t22;
        const P t114 = c[0] * t24;
        const P t115 = t113 + t114;
        const P t116 = c[3] * t26;
        const P t117 = t115 - t116;
        const P t118 = c[1] * t28;
        const P t119 = t117 - t118;
        const P t120 = c[2] * t30;
        const P t121 = t119 - t120;
        const P t122 = t121 + t0;
        const P t123 = c[9] * t23;
        const P t124 = c[7] * t27;
        const P t125 = t123 + t124;
        const P t126 = c[5] * t29;
        const P t127 = t125 + t126;
        const P t128 = c[8] * t25;
        const P t129 = t127 - t128;
        const P t130 = c[6] * t31;
        const P t131 = t129 - t130;
        // real block of 11, multiplier 2
        const P t132 = t3 + t21;
        const P t133 = t3 - t21;
        const P t134 = t19 + t5;
        const P t135 = t19 - t5;
        const P t136 = t7 + t17;
        const P t137 = t7 - t17;
        const P t138 = t9 + t15;
        const P t139 = t9 - t15;
        const P t140 = t13 + t11;
        const P t141 = t13 - t11;
        const P t142 = t132 + t134;
        const P t143 = t142 + t136;
        const P t144 = t143 + t138;
        const P t145 = t144 + t140;
        const P t146 = t145 + t1;
        const P t147 = c[0] * t132;
        const P t148 = c[1] * t134;
        const P t149 = t147 - t148;
        const P t150 = c[2] * t136;
        const P t151 = t149 - t150;
        const P t152 = c[3] * t138;
        const P t153 = t151 - t152;
        const P t154 = c[4] * t140;
        const P t155 = t153 + t154;
        const P t156 = t155 + t1;
        const P t157 = c[5] * t135;
        const P t158 = c[6] * t137;
        const P t159 = t157 + t158;
        const P t160 = c[7] * t139;
        const P t161 = t159 + t160;
        const P t162 = c[8] * t133;
        const P t163 = t161 - t162;
        const P t164 = c[9] * t141;
        const P t165 = t163 - t164;
        const P t166 = c[1] * t132;
        const P t167 = t1 - t166;
        const P t168 = c[3] * t134;
        const P t169 = t167 - t168;
        const P t170 = c[4] * t136;
        const P t171 = t169 + t170;
        const P t172 = c[2] * t138;
        const P t173 = t171 - t172;
        const P t174 = c[0] * t140;
        const P t175 = t173 + t174;
        const P t176 = c[5] * t133;
        const P t177 = c[7] * t135;
        const P t178 = t176 + t177;
        const P t179 = c[9] * t137;
        const P t180 = t178 + t179;
        const P t181 = c[6] * t139;
        const P t182 = t180 + t181;
        const P t183 = c[8] * t141;
        const P t184 = t182 + t183;
        const P t185 = c[2] * t132;
        const P t186 = t1 - t185;
        const P t187 = c[4] * t134;
        const P t188 = t186 + t187;
        const P t189 = c[1] * t136;
        const P t190 = t188 - t189;
        const P t191 = c[0] * t138;
        const P t192 = t190 + t191;
        const P t193 = c[3] * t140;
        const P t194 = t192 - t193;
        const P t195 = c[6] * t133;
        const P t196 = c[9] * t135;
        const P t197 = t195 + t196;
        const P t198 = c[5] * t137;
        const P t199 = t197 + t198;
        const P t200 = c[8] * t139;
        const P t201 = t199 - t200;
        const P t202 = c[7] * t141;
        const P t203 = t201 - t202;
        const P t204 = c[3] * t132;
        const P t205 = t1 - t204;
        const P t206 = c[2] * t134;
        const P t207 = t205 - t206;
        const P t208 = c[0] * t136;
        const P t209 = t207 + t208;
        const P t210 = c[4] * t138;
        const P t211 = t209 + t210;
        const P t212 = c[1] * t140;
        const P t213 = t211 - t212;
        const P t214 = c[7] * t133;
        const P t215 = c[6] * t135;
        const P t216 = t214 + t215;
        const P t217 = c[9] * t139;
        const P t218 = t216 + t217;
        const P t219 = c[8] * t137;
        const P t220 = t218 - t219;
        const P t221 = c[5] * t141;
        const P t222 = t220 - t221;
        const P t223 = c[4] * t132;
        const P t224 = c[0] * t134;
        const P t225 = t223 + t224;
        const P t226 = c[3] * t136;
        const P t227 = t225 - t226;
        const P t228 = c[1] * t138;
        const P t229 = t227 - t228;
        const P t230 = c[2] * t140;
        const P t231 = t229 - t230;
        const P t232 = t231 + t1;
        const P t233 = c[9] * t133;
        const P t234 = c[7] * t137;
        const P t235 = t233 + t234;
        const P t236 = c[5] * t139;
        const P t237 = t235 + t236;
        const P t238 = c[8] * t135;
        const P t239 = t237 - t238;
        const P t240 = c[6] * t141;
        const P t241 = t239 - t240;
        const P x1_46 = io.in(1, 46);
        // real block of 23, multiplier 2
        const P t242 = x1_46 + t36;
        const P t243 = c[42] * t36;
        const P t244 = x1_46 - t243;
        const P t245 = c[22] * t232;
        const P t246 = c[23] * t241;
        const P t247 = t245 + t246;
        const P t248 = c[22] * t241;
        const P t249 = c[23] * t232;
        const P t250 = t248 - t249;
        const P t251 = c[24] * t46;
        const P t252 = c[25] * t55;
        const P t253 = t251 - t252;
        const P t254 = c[24] * t55;
        const P t255 = c[25] * t46;
        const P t256 = t254 + t255;
        const P t257 = c[26] * t213;
        const P t258 = c[27] * t222;
        const P t259 = t257 - t258;
        const P t260 = c[26] * t222;
        const P t261 = c[27] * t213;
        const P t262 = t260 + t261;
        const P t263 = c[28] * t65;
        const P t264 = c[29] * t74;
        const P t265 = t263 + t264;
        const P t266 = c[28] * t74;
        const P t267 = c[29] * t65;
        const P t268 = t266 - t267;
        const P t269 = c[30] * t194;
        const P t270 = c[31] * t203;
        const P t271 = t269 + t270;
        const P t272 = c[30] * t203;
        const P t273 = c[31] * t194;
        const P t274 = t272 - t273;
        const P t275 = c[32] * t93;
        const P t276 = c[33] * t84;
        const P t277 = t275 - t276;
        const P t278 = c[33] * t93;
        const P t279 = c[32] * t84;
        const P t280 = t278 + t279;
        const P t281 = c[34] * t175;
        const P t282 = c[35] * t184;
        const P t283 = t281 - t282;
        const P t284 = c[34] * t184;
        const P t285 = c[35] * t175;
        const P t286 = t284 + t285;
        const P t287 = c[36] * t103;
        const P t288 = c[37] * t112;
        const P t289 = t287 - t288;
        const P t290 = c[36] * t112;
        const P t291 = c[37] * t103;
        const P t292 = t290 + t291;
        const P t293 = c[38] * t165;
        const P t294 = c[39] * t156;
        const P t295 = t293 - t294;
        const P t296 = c[39] * t165;
        const P t297 = c[38] * t156;
        const P t298 = t296 + t297;
        const P t299 = c[40] * t122;
        const P t300 = c[41] * t131;
        const P t301 = t299 - t300;
        const P t302 = c[40] * t131;
        const P t303 = c[41] * t122;
        const P t304 = t302 + t303;
        // real block of 5
        const P t305 = t301 - t265;
        const P t306 = t265 + t301;
        const P t307 = t277 + t289;
        const P t308 = t277 - t289;
        const P t309 = t305 + t307;
        const P t310 = t309 + t253;
        const P t311 = c[10] * t305;
        const P t312 = c[11] * t307;
        const P t313 = t311 - t312;
        const P t314 = t313 + t253;
        const P t315 = c[12] * t306;
        const P t316 = c[13] * t308;
        const P t317 = t315 + t316;
        const P t318 = c[11] * t305;
        const P t319 = t253 - t318;
        const P t320 = c[10] * t307;
        const P t321 = t319 + t320;
        const P t322 = c[13] * t306;
        const P t323 = c[12] * t308;
        const P t324 = t322 - t323;
        // real block of 5
        const P t325 = t304 - t268;
        const P t326 = t268 + t304;
        const P t327 = t292 - t280;
        const P t328 = t280 + t292;
        const P t329 = t325 + t327;
        const P t330 = t329 + t256;
        const P t331 = c[10] * t325;
        const P t332 = c[11] * t327;
        const P t333 = t331 - t332;
        const P t334 = t333 + t256;
        const P t335 = c[12] * t326;
        const P t336 = c[13] * t328;
        const P t337 = t335 - t336;
        const P t338 = c[11] * t325;
        const P t339 = t256 - t338;
        const P t340 = c[10] * t327;
        const P t341 = t339 + t340;
        const P t342 = c[13] * t326;
        const P t343 = c[12] * t328;
        const P t344 = t342 + t343;
        // spectrum block of 11
        const P t345 = c[43] * t310;
        const P t346 = t244 - t345;
        const P t347 = c[14] * t341;
        const P t348 = c[15] * t344;
        const P t349 = t347 + t348;
        const P t350 = c[14] * t344;
        const P t351 = c[15] * t341;
        const P t352 = t350 - t351;
        const P t353 = c[16] * t314;
        const P t354 = c[17] * t317;
        const P t355 = t353 - t354;
        const P t356 = c[16] * t317;
        const P t357 = c[17] * t314;
        const P t358 = t356 + t357;
        const P t359 = c[18] * t334;
        const P t360 = c[19] * t337;
        const P t361 = t359 - t360;
        const P t362 = c[18] * t337;
        const P t363 = c[19] * t334;
        const P t364 = t362 + t363;
        const P t365 = c[20] * t321;
        const P t366 = c[21] * t324;
        const P t367 = t365 - t366;
        const P t368 = c[20] * t324;
        const P t369 = c[21] * t321;
        const P t370 = t368 + t369;
        const P t371 = c[44] * t330;
        // spectrum block of 2
        const P t372 = t346 - t371;
        const P t373 = t346 + t371;
        // complex block of 2
        const P t374 = t358 + t364;
        const P t375 = t355 + t361;
        const P t376 = t358 - t364;
        const P t377 = t355 - t361;
        // complex block of 2
        const P t378 = t370 - t352;
        const P t379 = t367 - t349;
        const P t380 = t370 + t352;
        const P t381 = t367 + t349;
        // spectrum block of 5, multiplier 2
        const P t382 = t375 + t379;
        const P t383 = t382 + t372;
        const P t384 = c[10] * t375;
        const P t385 = c[11] * t379;
        const P t386 = t384 - t385;
        const P t387 = t386 + t372;
        const P t388 = c[12] * t374;
        const P t389 = c[13] * t378;
        const P t390 = t388 + t389;
        const P t391 = t387 - t390;
        const P t392 = t387 + t390;
        const P t393 = c[11] * t375;
        const P t394 = t372 - t393;
        const P t395 = c[10] * t379;
        const P t396 = t394 + t395;
        const P t397 = c[13] * t374;
        const P t398 = c[12] * t378;
        const P t399 = t397 - t398;
        const P t400 = t396 - t399;
        const P t401 = t396 + t399;
        // spectrum block of 5, multiplier 2
        const P t402 = t377 + t381;
        const P t403 = t402 + t373;
        const P t404 = c[10] * t377;
        const P t405 = c[11] * t381;
        const P t406 = t404 - t405;
        const P t407 = t406 + t373;
        const P t408 = c[12] * t376;
        const P t409 = c[13] * t380;
        const P t410 = t408 + t409;
        const P t411 = t407 - t410;
        const P t412 = t407 + t410;
        const P t413 = c[11] * t377;
        const P t414 = t373 - t413;
        const P t415 = c[10] * t381;
        const P t416 = t414 + t415;
        const P t417 = c[13] * t376;
        const P t418 = c[12] * t380;
        const P t419 = t417 - t418;
        const P t420 = t416 - t419;
        const P t421 = t416 + t419;
        // spectrum block of 11
        const P t422 = t244 + t310;
        // real block of 5
        const P t423 = t286 + t250;
        const P t424 = t286 - t250;
        const P t425 = t274 - t262;
        const P t426 = t274 + t262;
        const P t427 = t423 + t425;
        const P t428 = t427 + t298;
        const P t429 = c[10] * t423;
        const P t430 = c[11] * t425;
        const P t431 = t429 - t430;
        const P t432 = t431 + t298;
        const P t433 = c[13] * t426;
        const P t434 = c[12] * t424;
        const P t435 = t433 - t434;
        const P t436 = c[11] * t423;
        const P t437 = t298 - t436;
        const P t438 = c[10] * t425;
        const P t439 = t437 + t438;
        const P t440 = c[13] * t424;
        const P t441 = c[12] * t426;
        const P t442 = t440 + t441;
        // real block of 5
        const P t443 = t283 + t247;
        const P t444 = t247 - t283;
        const P t445 = t259 - t271;
        const P t446 = t271 + t259;
        const P t447 = t445 - t443;
        const P t448 = t447 + t295;
        const P t449 = c[10] * t443;
        const P t450 = t295 - t449;
        const P t451 = c[11] * t445;
        const P t452 = t450 - t451;
        const P t453 = c[12] * t444;
        const P t454 = c[13] * t446;
        const P t455 = t453 + t454;
        const P t456 = c[11] * t443;
        const P t457 = c[10] * t445;
        const P t458 = t456 + t457;
        const P t459 = t458 + t295;
        const P t460 = c[12] * t446;
        const P t461 = c[13] * t444;
        const P t462 = t460 - t461;
        // real block of 23, multiplier 2
        const P t463 = c[45] * t146;
        // spectrum block of 11
        const P t464 = c[43] * t428;
        const P t465 = t463 + t464;
        const P t466 = c[14] * t459;
        const P t467 = c[15] * t462;
        const P t468 = t466 + t467;
        const P t469 = c[14] * t462;
        const P t470 = c[15] * t459;
        const P t471 = t469 - t470;
        const P t472 = c[16] * t432;
        const P t473 = c[17] * t435;
        const P t474 = t472 - t473;
        const P t475 = c[16] * t435;
        const P t476 = c[17] * t432;
        const P t477 = t475 + t476;
        const P t478 = c[18] * t452;
        const P t479 = c[19] * t455;
        const P t480 = t478 + t479;
        const P t481 = c[18] * t455;
        const P t482 = c[19] * t452;
        const P t483 = t481 - t482;
        const P t484 = c[20] * t439;
        const P t485 = c[21] * t442;
        const P t486 = t484 + t485;
        const P t487 = c[21] * t439;
        const P t488 = c[20] * t442;
        const P t489 = t487 - t488;
        const P t490 = c[44] * t448;
        // spectrum block of 2
        const P t491 = t465 + t490;
        const P t492 = t490 - t465;
        // complex block of 2
        const P t493 = t477 - t483;
        const P t494 = t474 + t480;
        const P t495 = t477 + t483;
        const P t496 = t474 - t480;
        // complex block of 2
        const P t497 = t489 - t471;
        const P t498 = t486 - t468;
        const P t499 = t489 + t471;
        const P t500 = t486 + t468;
        // spectrum block of 5, multiplier 2
        const P t501 = t494 + t498;
        const P t502 = t501 - t491;
        const P t503 = c[10] * t494;
        const P t504 = c[11] * t498;
        const P t505 = t503 - t504;
        const P t506 = t505 - t491;
        const P t507 = c[12] * t493;
        const P t508 = c[13] * t497;
        const P t509 = t507 + t508;
        const P t510 = t506 - t509;
        const P t511 = t506 + t509;
        const P t512 = c[11] * t494;
        const P t513 = t491 + t512;
        const P t514 = c[10] * t498;
        const P t515 = t514 - t513;
        const P t516 = c[13] * t493;
        const P t517 = c[12] * t497;
        const P t518 = t516 - t517;
        const P t519 = t515 - t518;
        const P t520 = t515 + t518;
        // spectrum block of 5, multiplier 2
        const P t521 = t496 + t500;
        const P t522 = t521 + t492;
        const P t523 = c[10] * t496;
        const P t524 = c[11] * t500;
        const P t525 = t523 - t524;
        const P t526 = t525 + t492;
        const P t527 = c[12] * t495;
        const P t528 = c[13] * t499;
        const P t529 = t527 + t528;
        const P t530 = t526 - t529;
        const P t531 = t526 + t529;
        const P t532 = c[11] * t496;
        const P t533 = t492 - t532;
        const P t534 = c[10] * t500;
        const P t535 = t533 + t534;
        const P t536 = c[13] * t495;
        const P t537 = c[12] * t499;
        const P t538 = t536 - t537;
        const P t539 = t535 - t538;
        const P t540 = t535 + t538;
        // spectrum block of 11
        const P t541 = t428 - t463;
        const V t542 = part<0>(t242);
        const V t543 = part<1>(t242);
        // real block of 2
        const V t544 = t542 + t543;
        const V t545 = t542 - t543;
        const P t546 = shuffled<0, 2>(t422, t541);
        const P t547 = shuffled<1, 3>(t422, t541);
        // complex block of 2
        const P t548 = t546 + t547;
        const P t549 = t546 - t547;
        const P t550 = shuffled<0, 2>(t392, t511);
        const P t551 = shuffled<1, 3>(t392, t511);
        // complex block of 2
        const P t552 = t550 + t551;
        const P t553 = t550 - t551;
        const P t554 = shuffled<0, 2>(t411, t530);
        const P t555 = shuffled<1, 3>(t411, t530);
        // complex block of 2
        const P t556 = t554 + t555;
        const P t557 = t554 - t555;
        const P t558 = shuffled<0, 2>(t421, t540);
        const P t559 = shuffled<1, 3>(t421, t540);
        // complex block of 2
        const P t560 = t558 + t559;
        const P t561 = t558 - t559;
        const P t562 = shuffled<0, 2>(t403, t522);
        const P t563 = shuffled<1, 3>(t403, t522);
        // complex block of 2
        const P t564 = t562 + t563;
        const P t565 = shuffled<0, 3>(t562, t563);
        const P t566 = shuffled<0, 3>(t563, t562);
        const P t567 = t565 - t566;
        const P t568 = shuffled<0, 2>(t401, t520);
        const P t569 = shuffled<1, 3>(t401, t520);
        // complex block of 2
        const P t570 = t568 + t569;
        const P t571 = t568 - t569;
        const P t572 = shuffled<0, 2>(t400, t519);
        const P t573 = shuffled<1, 3>(t400, t519);
        // complex block of 2
        const P t574 = t572 + t573;
        const P t575 = shuffled<0, 3>(t572, t573);
        const P t576 = shuffled<0, 3>(t573, t572);
        const P t577 = t575 - t576;
        const P t578 = shuffled<0, 2>(t391, t510);
        const P t579 = shuffled<1, 3>(t391, t510);
        // complex block of 2
        const P t580 = t578 + t579;
        const P t581 = t578 - t579;
        const P t582 = shuffled<0, 2>(t383, t502);
        const P t583 = shuffled<1, 3>(t383, t502);
        // complex block of 2
        const P t584 = t582 + t583;
        const P t585 = t582 - t583;
        const P t586 = shuffled<0, 2>(t420, t539);
        const P t587 = shuffled<1, 3>(t420, t539);
        // complex block of 2
        const P t588 = t586 + t587;
        const P t589 = shuffled<0, 3>(t586, t587);
        const P t590 = shuffled<0, 3>(t587, t586);
        const P t591 = t589 - t590;
        const P t592 = shuffled<0, 2>(t412, t531);
        const P t593 = shuffled<1, 3>(t412, t531);
        // complex block of 2
        const P t594 = t592 + t593;
        const P t595 = shuffled<0, 3>(t592, t593);
        const P t596 = shuffled<0, 3>(t593, t592);
        const P t597 = t595 - t596;
        const V x0 = io.in(0);
        // real block of 47
        const V t598 = x0 + t544;
        io.out(0, t598);
        const V t599 = c[110] * t544;
        const V t600 = x0 - t599;
        const P t601 = c[46] * t597;
        const P t602 = shuffled<1, 0>(t597);
        const P t603 = P(-c[47], c[47]) * t602;
        const P t604 = t601 + t603;
        const P t605 = P(-c[48], c[48]) * t548;
        const P t606 = shuffled<1, 0>(t548);
        const P t607 = c[49] * t606;
        const P t608 = t605 + t607;
        const P t609 = shuffled<1, 0>(t591);
        const P t610 = c[50] * t609;
        const P t611 = P(c[51], -c[51]) * t591;
        const P t612 = t610 + t611;
        const P t613 = c[52] * t552;
        const P t614 = shuffled<1, 0>(t552);
        const P t615 = P(c[53], -c[53]) * t614;
        const P t616 = t613 + t615;
        const P t617 = c[54] * t585;
        const P t618 = shuffled<1, 0>(t585);
        const P t619 = P(-c[55], c[55]) * t618;
        const P t620 = t617 + t619;
        const P t621 = c[56] * t556;
        const P t622 = shuffled<1, 0>(t556);
        const P t623 = P(-c[57], c[57]) * t622;
        const P t624 = t621 + t623;
        const P t625 = c[58] * t581;
        const P t626 = shuffled<1, 0>(t581);
        const P t627 = P(c[59], -c[59]) * t626;
        const P t628 = t625 + t627;
        const P t629 = shuffled<1, 0>(t560);
        const P t630 = c[60] * t629;
        const P t631 = P(c[61], -c[61]) * t560;
        const P t632 = t630 + t631;
        const P t633 = c[62] * t577;
        const P t634 = shuffled<1, 0>(t577);
        const P t635 = P(-c[63], c[63]) * t634;
        const P t636 = t633 + t635;
        const P t637 = c[64] * t564;
        const P t638 = shuffled<1, 0>(t564);
        const P t639 = P(-c[65], c[65]) * t638;
        const P t640 = t637 + t639;
        const P t641 = P(-c[66], c[66]) * t571;
        const P t642 = shuffled<1, 0>(t571);
        const P t643 = c[67] * t642;
        const P t644 = t641 + t643;
        const P t645 = c[68] * t570;
        const P t646 = shuffled<1, 0>(t570);
        const P t647 = P(-c[69], c[69]) * t646;
        const P t648 = t645 + t647;
        const P t649 = c[70] * t567;
        const P t650 = shuffled<1, 0>(t567);
        const P t651 = P(-c[71], c[71]) * t650;
        const P t652 = t649 + t651;
        const P t653 = shuffled<1, 0>(t574);
        const P t654 = c[72] * t653;
        const P t655 = P(c[73], -c[73]) * t574;
        const P t656 = t654 + t655;
        const P t657 = shuffled<1, 0>(t561);
        const P t658 = c[74] * t657;
        const P t659 = P(c[75], -c[75]) * t561;
        const P t660 = t658 + t659;
        const P t661 = c[76] * t580;
        const P t662 = shuffled<1, 0>(t580);
        const P t663 = P(-c[77], c[77]) * t662;
        const P t664 = t661 + t663;
        const P t665 = P(-c[78], c[78]) * t557;
        const P t666 = shuffled<1, 0>(t557);
        const P t667 = c[79] * t666;
        const P t668 = t665 + t667;
        const P t669 = c[80] * t584;
        const P t670 = shuffled<1, 0>(t584);
        const P t671 = P(c[81], -c[81]) * t670;
        const P t672 = t669 + t671;
        const P t673 = P(-c[82], c[82]) * t553;
        const P t674 = shuffled<1, 0>(t553);
        const P t675 = c[83] * t674;
        const P t676 = t673 + t675;
        const P t677 = c[84] * t588;
        const P t678 = shuffled<1, 0>(t588);
        const P t679 = P(c[85], -c[85]) * t678;
        const P t680 = t677 + t679;
        const P t681 = P(-c[86], c[86]) * t549;
        const P t682 = shuffled<1, 0>(t549);
        const P t683 = c[87] * t682;
        const P t684 = t681 + t683;
        const P t685 = shuffled<1, 0>(t594);
        const P t686 = c[88] * t685;
        const P t687 = P(c[89], -c[89]) * t594;
        const P t688 = t686 + t687;
        const P t689 = shuffled<0, 3>(t688, t676);
        const P t690 = shuffled<0, 3>(t616, t604);
        const P t691 = flipped<0, 1>(t690);
        // real block of 11
        const P t692 = t689 + t691;
        const P t693 = shuffled<0, 3>(t640, t652);
        const P t694 = shuffled<0, 3>(t672, t620);
        const P t695 = t693 + t694;
        const P t696 = c[4] * t695;
        const V t697 = part<0>(t696);
        const V t698 = part<0>(t692);
        const V t699 = c[0] * t698;
        const V t700 = t697 + t699;
        const P t701 = shuffled<0, 3>(t656, t612);
        const P t702 = shuffled<0, 3>(t680, t636);
        const P t703 = t701 - t702;
        const V t704 = part<0>(t703);
        const V t705 = c[3] * t704;
        const V t706 = t700 - t705;
        const P t707 = shuffled<0, 3>(t648, t660);
        const P t708 = shuffled<0, 3>(t632, t644);
        const P t709 = flipped<1, 0>(t708);
        const P t710 = t707 + t709;
        const V t711 = part<0>(t710);
        const V t712 = c[1] * t711;
        const V t713 = t706 - t712;
        const P t714 = shuffled<0, 3>(t664, t628);
        const P t715 = shuffled<0, 3>(t624, t668);
        const P t716 = t714 + t715;
        const V t717 = part<0>(t716);
        const V t718 = c[2] * t717;
        const V t719 = t713 - t718;
        const P t720 = c[0] * t695;
        const V t721 = part<0>(t720);
        const V t722 = c[1] * t698;
        const V t723 = t721 - t722;
        const V t724 = c[2] * t704;
        const V t725 = t723 - t724;
        const V t726 = c[3] * t711;
        const V t727 = t725 - t726;
        const V t728 = c[4] * t717;
        const V t729 = t727 + t728;
        const V t730 = part<0>(t608);
        const P t731 = c[3] * t695;
        const V t732 = part<0>(t731);
        const V t733 = t730 - t732;
        const V t734 = c[2] * t698;
        const V t735 = t733 - t734;
        const V t736 = c[0] * t704;
        const V t737 = t735 + t736;
        const V t738 = c[4] * t711;
        const V t739 = t737 + t738;
        const P t740 = c[1] * t695;
        const V t741 = part<0>(t740);
        const V t742 = t730 - t741;
        const V t743 = c[3] * t698;
        const V t744 = t742 - t743;
        const V t745 = c[4] * t704;
        const V t746 = t744 + t745;
        const V t747 = c[2] * t711;
        const V t748 = t746 - t747;
        const P t749 = c[2] * t695;
        const V t750 = part<0>(t749);
        const V t751 = t730 - t750;
        const V t752 = c[4] * t698;
        const V t753 = t751 + t752;
        const V t754 = c[1] * t704;
        const V t755 = t753 - t754;
        const V t756 = c[0] * t711;
        const V t757 = t755 + t756;
        const P t758 = shuffled<0, 3>(t693, t694);
        const P t759 = shuffled<0, 3>(t694, t693);
        const P t760 = t758 - t759;
        const P t761 = t689 - t691;
        const P t762 = t701 + t702;
        const P t763 = t707 - t709;
        const P t764 = t714 - t715;
        const P t765 = flipped<0, 1>(t695);
        const P t766 = t692 + t765;
        const P t767 = t766 + t703;
        const P t768 = t767 + t710;
        const P t769 = t768 + t716;
        const P t770 = shuffled<0, 3>(t608, t684);
        const P t771 = t769 + t770;
        const V t772 = part<1>(t770);
        const V t773 = part<1>(t696);
        // real block of 11
        const V t774 = t772 - t773;
        const V t775 = part<1>(t692);
        const V t776 = c[0] * t775;
        const V t777 = t774 + t776;
        const V t778 = part<1>(t703);
        const V t779 = c[3] * t778;
        const V t780 = t777 - t779;
        const V t781 = part<1>(t710);
        const V t782 = c[1] * t781;
        const V t783 = t780 - t782;
        const P t784 = joined(t719, t783);
        const V t785 = part<1>(t716);
        const V t786 = -c[2] * t785;
        const P t787 = joined(t730, t786);
        // real block of 11
        const P t788 = t784 + t787;
        const P t789 = c[8] * t761;
        const P t790 = c[6] * t764;
        const P t791 = shuffled<0, 3>(t789, t790);
        const P t792 = c[7] * t762;
        const P t793 = P(c[9], -c[9]) * t760;
        const P t794 = shuffled<0, 3>(t792, t793);
        const P t795 = t791 + t794;
        const P t796 = P(-c[5], c[5]) * t763;
        const P t797 = shuffled<0, 3>(t796, t789);
        const P t798 = t795 - t797;
        const P t799 = shuffled<0, 3>(t790, t792);
        const P t800 = flipped<0, 1>(t799);
        const P t801 = t798 + t800;
        const P t802 = shuffled<0, 3>(t793, t796);
        const P t803 = t801 - t802;
        const V t804 = part<1>(t720);
        // real block of 11
        const V t805 = t772 - t804;
        const V t806 = c[1] * t775;
        const V t807 = t805 - t806;
        const V t808 = c[2] * t778;
        const V t809 = t807 - t808;
        const V t810 = c[3] * t781;
        const V t811 = t809 - t810;
        const P t812 = joined(t729, t811);
        const V t813 = c[4] * t785;
        const P t814 = joined(t730, t813);
        // real block of 11
        const P t815 = t812 + t814;
        const P t816 = c[5] * t761;
        const P t817 = c[6] * t762;
        const P t818 = shuffled<0, 3>(t816, t817);
        const P t819 = P(-c[8], c[8]) * t760;
        const P t820 = c[7] * t763;
        const P t821 = shuffled<0, 3>(t819, t820);
        const P t822 = t818 + t821;
        const P t823 = shuffled<0, 3>(t817, t819);
        const P t824 = t822 - t823;
        const P t825 = shuffled<0, 3>(t820, t816);
        const P t826 = t824 - t825;
        const P t827 = c[9] * t764;
        const P t828 = t826 - t827;
        const V t829 = part<1>(t731);
        // real block of 11
        const V t830 = c[2] * t775;
        const V t831 = t829 - t830;
        const V t832 = c[0] * t778;
        const V t833 = t831 + t832;
        const V t834 = c[4] * t781;
        const V t835 = t833 + t834;
        const V t836 = c[1] * t785;
        const V t837 = t835 - t836;
        const P t838 = joined(t739, t837);
        // real block of 11
        const V t839 = -c[1] * t717;
        const P t840 = joined(t839, t772);
        const P t841 = t838 + t840;
        const P t842 = c[9] * t763;
        const P t843 = c[6] * t761;
        const P t844 = shuffled<0, 3>(t842, t843);
        const P t845 = c[5] * t764;
        const P t846 = c[8] * t762;
        const P t847 = shuffled<0, 3>(t845, t846);
        const P t848 = t844 + t847;
        const P t849 = P(-c[7], c[7]) * t760;
        const P t850 = shuffled<0, 3>(t849, t845);
        const P t851 = t848 + t850;
        const P t852 = shuffled<0, 3>(t843, t849);
        const P t853 = t851 - t852;
        const P t854 = shuffled<0, 3>(t846, t842);
        const P t855 = t853 - t854;
        const V t856 = part<1>(t740);
        // real block of 11
        const V t857 = c[3] * t775;
        const V t858 = t856 - t857;
        const V t859 = c[4] * t778;
        const V t860 = t858 + t859;
        const V t861 = c[2] * t781;
        const V t862 = t860 - t861;
        const V t863 = c[0] * t785;
        const V t864 = t862 + t863;
        const P t865 = joined(t748, t864);
        // real block of 11
        const V t866 = c[0] * t717;
        const P t867 = joined(t866, t772);
        const P t868 = t865 + t867;
        const P t869 = c[9] * t762;
        const P t870 = c[7] * t761;
        const P t871 = shuffled<0, 3>(t869, t870);
        const P t872 = c[6] * t763;
        const P t873 = P(c[5], -c[5]) * t760;
        const P t874 = shuffled<0, 3>(t872, t873);
        const P t875 = t871 + t874;
        const P t876 = shuffled<0, 3>(t873, t869);
        const P t877 = t875 - t876;
        const P t878 = shuffled<0, 3>(t870, t872);
        const P t879 = t877 - t878;
        const P t880 = c[8] * t764;
        const P t881 = t879 - t880;
        const V t882 = part<1>(t749);
        // real block of 11
        const V t883 = c[4] * t775;
        const V t884 = t882 + t883;
        const V t885 = c[1] * t778;
        const V t886 = t884 - t885;
        const V t887 = c[0] * t781;
        const V t888 = t886 + t887;
        const V t889 = c[3] * t785;
        const V t890 = t888 - t889;
        const P t891 = joined(t757, t890);
        // real block of 11
        const V t892 = -c[3] * t717;
        const P t893 = joined(t892, t772);
        const P t894 = t891 + t893;
        const P t895 = c[5] * t762;
        const P t896 = c[9] * t761;
        const P t897 = shuffled<0, 3>(t895, t896);
        const P t898 = c[7] * t764;
        const P t899 = c[8] * t763;
        const P t900 = shuffled<0, 3>(t898, t899);
        const P t901 = t897 + t900;
        const P t902 = P(-c[6], c[6]) * t760;
        const P t903 = shuffled<0, 3>(t902, t898);
        const P t904 = t901 + t903;
        const P t905 = shuffled<0, 3>(t896, t902);
        const P t906 = t904 - t905;
        const P t907 = shuffled<0, 3>(t899, t895);
        const P t908 = t906 - t907;
        const P t909 = shuffled<1, 2>(t640, t620);
        const P t910 = shuffled<1, 2>(t672, t652);
        const P t911 = flipped<0, 1>(t910);
        // real block of 11
        const P t912 = t909 + t911;
        const P t913 = t909 - t911;
        const P t914 = shuffled<1, 2>(t616, t676);
        const P t915 = shuffled<1, 2>(t688, t604);
        const P t916 = t914 - t915;
        const P t917 = t915 + t914;
        const P t918 = shuffled<1, 2>(t680, t612);
        const P t919 = shuffled<1, 2>(t656, t636);
        const P t920 = t918 + t919;
        const P t921 = t919 - t918;
        const P t922 = shuffled<1, 2>(t632, t660);
        const P t923 = shuffled<1, 2>(t648, t644);
        const P t924 = t922 + t923;
        const P t925 = t922 - t923;
        const P t926 = shuffled<1, 2>(t664, t668);
        const P t927 = shuffled<1, 2>(t624, t628);
        const P t928 = flipped<0, 1>(t927);
        const P t929 = t926 + t928;
        const P t930 = t926 - t928;
        const P t931 = t912 + t916;
        const P t932 = t931 - t920;
        const P t933 = t932 + t924;
        const P t934 = t933 + t929;
        const P t935 = shuffled<1, 2>(t608, t684);
        const P t936 = flipped<1, 0>(t935);
        const P t937 = t934 + t936;
        const P t938 = c[4] * t912;
        const P t939 = c[0] * t916;
        const P t940 = t938 + t939;
        const P t941 = c[3] * t920;
        const P t942 = t940 + t941;
        const P t943 = c[1] * t924;
        const P t944 = t942 - t943;
        const P t945 = c[2] * t929;
        const P t946 = t944 - t945;
        const P t947 = t946 + t936;
        const P t948 = P(-c[9], c[9]) * t913;
        const P t949 = c[6] * t930;
        const P t950 = P(c[8], -c[8]) * t917;
        const P t951 = shuffled<0, 3>(t949, t950);
        const P t952 = t948 + t951;
        const P t953 = c[7] * t921;
        const P t954 = shuffled<0, 3>(t950, t953);
        const P t955 = t952 - t954;
        const P t956 = c[5] * t925;
        const P t957 = shuffled<0, 3>(t953, t956);
        const P t958 = t955 - t957;
        const P t959 = shuffled<0, 3>(t956, t949);
        const P t960 = t958 - t959;
        const P t961 = c[0] * t912;
        const P t962 = c[1] * t916;
        const P t963 = t961 - t962;
        const P t964 = c[2] * t920;
        const P t965 = t963 + t964;
        const P t966 = c[3] * t924;
        const P t967 = t965 - t966;
        const P t968 = c[4] * t929;
        const P t969 = t967 + t968;
        const P t970 = t969 + t936;
        const P t971 = c[7] * t925;
        const P t972 = c[8] * t913;
        const P t973 = shuffled<0, 3>(t971, t972);
        const P t974 = c[6] * t921;
        const P t975 = t973 + t974;
        const P t976 = shuffled<0, 3>(t972, t971);
        const P t977 = flipped<1, 0>(t976);
        const P t978 = t975 + t977;
        const P t979 = P(-c[5], c[5]) * t917;
        const P t980 = c[9] * t930;
        const P t981 = shuffled<0, 3>(t979, t980);
        const P t982 = t978 + t981;
        const P t983 = shuffled<0, 3>(t980, t979);
        const P t984 = t982 - t983;
        const P t985 = P(c[3], -c[3]) * t912;
        const P t986 = t935 + t985;
        const P t987 = P(c[2], -c[2]) * t916;
        const P t988 = t986 + t987;
        const P t989 = P(c[0], -c[0]) * t920;
        const P t990 = t988 + t989;
        const P t991 = flipped<1, 0>(t990);
        const P t992 = c[4] * t924;
        const P t993 = t991 + t992;
        const P t994 = c[1] * t929;
        const P t995 = t993 - t994;
        const P t996 = c[8] * t921;
        const P t997 = c[7] * t913;
        const P t998 = shuffled<0, 3>(t996, t997);
        const P t999 = c[6] * t917;
        const P t1000 = t998 + t999;
        const P t1001 = c[5] * t930;
        const P t1002 = shuffled<0, 3>(t1001, t996);
        const P t1003 = t1000 + t1002;
        const P t1004 = c[9] * t925;
        const P t1005 = shuffled<0, 3>(t997, t1004);
        const P t1006 = t1003 - t1005;
        const P t1007 = shuffled<0, 3>(t1004, t1001);
        const P t1008 = t1006 - t1007;
        const P t1009 = P(c[1], -c[1]) * t912;
        const P t1010 = t935 + t1009;
        const P t1011 = P(c[3], -c[3]) * t916;
        const P t1012 = t1010 + t1011;
        const P t1013 = P(c[4], -c[4]) * t920;
        const P t1014 = t1012 + t1013;
        const P t1015 = P(c[2], -c[2]) * t924;
        const P t1016 = t1014 + t1015;
        const P t1017 = flipped<1, 0>(t1016);
        const P t1018 = c[0] * t929;
        const P t1019 = t1017 + t1018;
        const P t1020 = P(-c[5], c[5]) * t913;
        const P t1021 = c[7] * t917;
        const P t1022 = t1020 + t1021;
        const P t1023 = P(-c[9], c[9]) * t921;
        const P t1024 = c[8] * t930;
        const P t1025 = shuffled<0, 3>(t1023, t1024);
        const P t1026 = t1022 + t1025;
        const P t1027 = c[6] * t925;
        const P t1028 = shuffled<0, 3>(t1027, t1023);
        const P t1029 = t1026 - t1028;
        const P t1030 = shuffled<0, 3>(t1024, t1027);
        const P t1031 = t1029 - t1030;
        const P t1032 = P(c[2], -c[2]) * t912;
        const P t1033 = t935 + t1032;
        const P t1034 = flipped<1, 0>(t1033);
        const P t1035 = c[4] * t916;
        const P t1036 = t1034 + t1035;
        const P t1037 = c[1] * t920;
        const P t1038 = t1036 + t1037;
        const P t1039 = c[0] * t924;
        const P t1040 = t1038 + t1039;
        const P t1041 = c[3] * t929;
        const P t1042 = t1040 - t1041;
        const P t1043 = c[8] * t925;
        const P t1044 = c[6] * t913;
        const P t1045 = shuffled<0, 3>(t1043, t1044);
        const P t1046 = c[9] * t917;
        const P t1047 = t1045 + t1046;
        const P t1048 = c[7] * t930;
        const P t1049 = shuffled<0, 3>(t1048, t1043);
        const P t1050 = t1047 + t1049;
        const P t1051 = c[5] * t921;
        const P t1052 = shuffled<0, 3>(t1044, t1051);
        const P t1053 = t1050 - t1052;
        const P t1054 = shuffled<0, 3>(t1051, t1048);
        const P t1055 = t1053 - t1054;
        // real block of 47
        const V t1056 = c[111] * t545;
        const P t1057 = joined(t600, t1056);
        // spectrum block of 23
        const P t1058 = P(-c[42], c[42]) * t771;
        const P t1059 = t1057 + t1058;
        const P t1060 = P(c[90], c[22]) * t1055;
        const P t1061 = P(c[91], -c[23]) * t1042;
        const P t1062 = t1060 + t1061;
        const P t1063 = P(c[91], c[23]) * t1055;
        const P t1064 = P(-c[90], c[22]) * t1042;
        const P t1065 = t1063 + t1064;
        const P t1066 = P(c[92], c[24]) * t788;
        const P t1067 = P(c[93], c[25]) * t803;
        const P t1068 = t1066 - t1067;
        const P t1069 = P(c[92], c[24]) * t803;
        const P t1070 = P(c[93], c[25]) * t788;
        const P t1071 = t1069 + t1070;
        const P t1072 = P(c[94], c[27]) * t1019;
        const P t1073 = P(-c[95], c[26]) * t1031;
        const P t1074 = t1072 + t1073;
        const P t1075 = P(c[94], c[27]) * t1031;
        const P t1076 = P(c[95], -c[26]) * t1019;
        const P t1077 = t1075 + t1076;
        const P t1078 = P(-c[96], c[29]) * t828;
        const P t1079 = P(c[97], -c[28]) * t815;
        const P t1080 = t1078 + t1079;
        const P t1081 = P(c[97], c[28]) * t828;
        const P t1082 = P(c[96], c[29]) * t815;
        const P t1083 = t1081 + t1082;
        const P t1084 = P(-c[98], c[30]) * t1008;
        const P t1085 = P(c[99], -c[31]) * t995;
        const P t1086 = t1084 + t1085;
        const P t1087 = P(c[99], c[31]) * t1008;
        const P t1088 = P(c[98], c[30]) * t995;
        const P t1089 = t1087 + t1088;
        const P t1090 = P(-c[100], c[32]) * t855;
        const P t1091 = P(c[101], -c[33]) * t841;
        const P t1092 = t1090 + t1091;
        const P t1093 = P(c[101], c[33]) * t855;
        const P t1094 = P(c[100], c[32]) * t841;
        const P t1095 = t1093 + t1094;
        const P t1096 = P(c[102], c[35]) * t970;
        const P t1097 = P(c[103], -c[34]) * t984;
        const P t1098 = t1096 + t1097;
        const P t1099 = P(c[102], c[35]) * t984;
        const P t1100 = P(-c[103], c[34]) * t970;
        const P t1101 = t1099 + t1100;
        const P t1102 = P(-c[104], c[36]) * t868;
        const P t1103 = P(c[105], -c[37]) * t881;
        const P t1104 = t1102 + t1103;
        const P t1105 = P(c[104], c[36]) * t881;
        const P t1106 = P(c[105], c[37]) * t868;
        const P t1107 = t1105 + t1106;
        const P t1108 = P(c[106], c[38]) * t947;
        const P t1109 = P(c[107], c[39]) * t960;
        const P t1110 = t1108 + t1109;
        const P t1111 = P(c[107], c[39]) * t947;
        const P t1112 = P(c[106], c[38]) * t960;
        const P t1113 = t1111 - t1112;
        const P t1114 = P(c[108], c[40]) * t894;
        const P t1115 = P(c[109], -c[41]) * t908;
        const P t1116 = t1114 + t1115;
        const P t1117 = P(c[108], c[40]) * t908;
        const P t1118 = P(-c[109], c[41]) * t894;
        const P t1119 = t1117 + t1118;
        // spectrum block of 11, multiplier 2
        const P t1120 = t1068 + t1080;
        const P t1121 = t1120 + t1092;
        const P t1122 = t1121 + t1104;
        const P t1123 = t1122 + t1116;
        const P t1124 = flipped<0, 1>(t1059);
        const P t1125 = t1123 + t1124;
        const P t1126 = c[4] * t1068;
        const P t1127 = c[0] * t1080;
        const P t1128 = t1126 + t1127;
        const P t1129 = c[3] * t1092;
        const P t1130 = t1128 - t1129;
        const P t1131 = c[1] * t1104;
        const P t1132 = t1130 - t1131;
        const P t1133 = c[2] * t1116;
        const P t1134 = t1132 - t1133;
        const P t1135 = t1134 + t1124;
        const P t1136 = c[9] * t1071;
        const P t1137 = P(c[8], -c[8]) * t1083;
        const P t1138 = t1136 + t1137;
        const P t1139 = P(c[7], -c[7]) * t1095;
        const P t1140 = t1138 + t1139;
        const P t1141 = P(-c[5], c[5]) * t1107;
        const P t1142 = t1140 + t1141;
        const P t1143 = c[6] * t1119;
        const P t1144 = t1142 + t1143;
        const P t1145 = t1135 - t1144;
        const P t1146 = t1135 + t1144;
        const P t1147 = c[0] * t1068;
        const P t1148 = c[1] * t1080;
        const P t1149 = t1147 - t1148;
        const P t1150 = c[2] * t1092;
        const P t1151 = t1149 - t1150;
        const P t1152 = c[3] * t1104;
        const P t1153 = t1151 - t1152;
        const P t1154 = c[4] * t1116;
        const P t1155 = t1153 + t1154;
        const P t1156 = t1155 + t1124;
        const P t1157 = c[8] * t1071;
        const P t1158 = P(c[5], -c[5]) * t1083;
        const P t1159 = t1157 + t1158;
        const P t1160 = P(-c[6], c[6]) * t1095;
        const P t1161 = t1159 + t1160;
        const P t1162 = P(c[7], -c[7]) * t1107;
        const P t1163 = t1161 + t1162;
        const P t1164 = c[9] * t1119;
        const P t1165 = t1163 - t1164;
        const P t1166 = t1156 - t1165;
        const P t1167 = t1156 + t1165;
        const P t1168 = P(-c[3], c[3]) * t1068;
        const P t1169 = t1059 + t1168;
        const P t1170 = P(-c[2], c[2]) * t1080;
        const P t1171 = t1169 + t1170;
        const P t1172 = c[0] * t1092;
        const P t1173 = flipped<0, 1>(t1171);
        const P t1174 = t1172 + t1173;
        const P t1175 = c[4] * t1104;
        const P t1176 = t1174 + t1175;
        const P t1177 = c[1] * t1116;
        const P t1178 = t1176 - t1177;
        const P t1179 = c[7] * t1071;
        const P t1180 = P(-c[6], c[6]) * t1083;
        const P t1181 = t1179 + t1180;
        const P t1182 = P(-c[8], c[8]) * t1095;
        const P t1183 = t1181 + t1182;
        const P t1184 = P(-c[9], c[9]) * t1107;
        const P t1185 = t1183 + t1184;
        const P t1186 = c[5] * t1119;
        const P t1187 = t1185 + t1186;
        const P t1188 = t1178 - t1187;
        const P t1189 = t1178 + t1187;
        const P t1190 = P(-c[1], c[1]) * t1068;
        const P t1191 = t1059 + t1190;
        const P t1192 = P(-c[3], c[3]) * t1080;
        const P t1193 = t1191 + t1192;
        const P t1194 = c[4] * t1092;
        const P t1195 = flipped<0, 1>(t1193);
        const P t1196 = t1194 + t1195;
        const P t1197 = c[2] * t1104;
        const P t1198 = t1196 - t1197;
        const P t1199 = c[0] * t1116;
        const P t1200 = t1198 + t1199;
        const P t1201 = c[5] * t1071;
        const P t1202 = P(-c[7], c[7]) * t1083;
        const P t1203 = t1201 + t1202;
        const P t1204 = P(c[9], -c[9]) * t1095;
        const P t1205 = t1203 + t1204;
        const P t1206 = P(-c[6], c[6]) * t1107;
        const P t1207 = t1205 + t1206;
        const P t1208 = c[8] * t1119;
        const P t1209 = t1207 - t1208;
        const P t1210 = t1200 - t1209;
        const P t1211 = t1200 + t1209;
        const P t1212 = P(-c[2], c[2]) * t1068;
        const P t1213 = t1059 + t1212;
        const P t1214 = c[4] * t1080;
        const P t1215 = flipped<0, 1>(t1213);
        const P t1216 = t1214 + t1215;
        const P t1217 = c[1] * t1092;
        const P t1218 = t1216 - t1217;
        const P t1219 = c[0] * t1104;
        const P t1220 = t1218 + t1219;
        const P t1221 = c[3] * t1116;
        const P t1222 = t1220 - t1221;
        const P t1223 = c[6] * t1071;
        const P t1224 = P(-c[9], c[9]) * t1083;
        const P t1225 = t1223 + t1224;
        const P t1226 = P(c[5], -c[5]) * t1095;
        const P t1227 = t1225 + t1226;
        const P t1228 = P(c[8], -c[8]) * t1107;
        const P t1229 = t1227 + t1228;
        const P t1230 = c[7] * t1119;
        const P t1231 = t1229 + t1230;
        const P t1232 = t1222 - t1231;
        const P t1233 = t1222 + t1231;
        const P t1234 = flipped<1, 0>(t1098);
        // spectrum block of 11, multiplier 2
        const P t1235 = t1110 + t1234;
        const P t1236 = t1235 + t1086;
        const P t1237 = flipped<0, 1>(t1074);
        const P t1238 = t1236 + t1237;
        const P t1239 = flipped<1, 0>(t1062);
        const P t1240 = t1238 + t1239;
        // spectrum block of 23
        const P t1241 = c[45] * t937;
        // spectrum block of 11, multiplier 2
        const P t1242 = t1240 - t1241;
        const P t1243 = c[4] * t1110;
        const P t1244 = P(-c[0], c[0]) * t1098;
        const P t1245 = t1243 + t1244;
        const P t1246 = c[3] * t1086;
        const P t1247 = t1245 - t1246;
        const P t1248 = P(-c[1], c[1]) * t1074;
        const P t1249 = t1247 + t1248;
        const P t1250 = P(c[2], -c[2]) * t1062;
        const P t1251 = t1249 + t1250;
        const P t1252 = t1251 - t1241;
        const P t1253 = c[8] * t1101;
        const P t1254 = P(c[9], -c[9]) * t1113;
        const P t1255 = t1253 + t1254;
        const P t1256 = flipped<1, 0>(t1255);
        const P t1257 = P(c[7], -c[7]) * t1089;
        const P t1258 = t1256 + t1257;
        const P t1259 = P(c[5], -c[5]) * t1077;
        const P t1260 = t1258 + t1259;
        const P t1261 = c[6] * t1065;
        const P t1262 = t1260 - t1261;
        const P t1263 = t1252 - t1262;
        const P t1264 = t1252 + t1262;
        const P t1265 = c[0] * t1110;
        const P t1266 = P(c[1], -c[1]) * t1098;
        const P t1267 = t1265 + t1266;
        const P t1268 = c[2] * t1086;
        const P t1269 = t1267 - t1268;
        const P t1270 = P(-c[3], c[3]) * t1074;
        const P t1271 = t1269 + t1270;
        const P t1272 = P(-c[4], c[4]) * t1062;
        const P t1273 = t1271 + t1272;
        const P t1274 = t1273 - t1241;
        const P t1275 = c[5] * t1101;
        const P t1276 = P(c[8], -c[8]) * t1113;
        const P t1277 = t1275 + t1276;
        const P t1278 = c[6] * t1089;
        const P t1279 = t1277 + t1278;
        const P t1280 = c[7] * t1077;
        const P t1281 = t1279 + t1280;
        const P t1282 = flipped<1, 0>(t1281);
        const P t1283 = c[9] * t1065;
        const P t1284 = t1282 + t1283;
        const P t1285 = t1274 - t1284;
        const P t1286 = t1274 + t1284;
        const P t1287 = c[3] * t1110;
        const P t1288 = t1241 + t1287;
        const P t1289 = flipped<1, 0>(t1288);
        const P t1290 = c[2] * t1098;
        const P t1291 = t1289 + t1290;
        const P t1292 = c[0] * t1086;
        const P t1293 = flipped<0, 1>(t1291);
        const P t1294 = t1292 + t1293;
        const P t1295 = P(c[4], -c[4]) * t1074;
        const P t1296 = t1294 + t1295;
        const P t1297 = P(c[1], -c[1]) * t1062;
        const P t1298 = t1296 + t1297;
        const P t1299 = P(-c[7], c[7]) * t1113;
        const P t1300 = c[6] * t1101;
        const P t1301 = t1299 + t1300;
        const P t1302 = P(-c[8], c[8]) * t1089;
        const P t1303 = flipped<0, 1>(t1301);
        const P t1304 = t1302 + t1303;
        const P t1305 = P(c[9], -c[9]) * t1077;
        const P t1306 = t1304 + t1305;
        const P t1307 = c[5] * t1065;
        const P t1308 = t1306 - t1307;
        const P t1309 = t1298 - t1308;
        const P t1310 = t1298 + t1308;
        const P t1311 = c[1] * t1110;
        const P t1312 = t1241 + t1311;
        const P t1313 = flipped<1, 0>(t1312);
        const P t1314 = c[3] * t1098;
        const P t1315 = t1313 + t1314;
        const P t1316 = c[4] * t1086;
        const P t1317 = flipped<0, 1>(t1315);
        const P t1318 = t1316 + t1317;
        const P t1319 = P(-c[2], c[2]) * t1074;
        const P t1320 = t1318 + t1319;
        const P t1321 = P(-c[0], c[0]) * t1062;
        const P t1322 = t1320 + t1321;
        const P t1323 = P(-c[5], c[5]) * t1113;
        const P t1324 = c[7] * t1101;
        const P t1325 = t1323 + t1324;
        const P t1326 = c[9] * t1089;
        const P t1327 = t1325 + t1326;
        const P t1328 = c[6] * t1077;
        const P t1329 = t1327 + t1328;
        const P t1330 = c[8] * t1065;
        const P t1331 = flipped<0, 1>(t1329);
        const P t1332 = t1330 + t1331;
        const P t1333 = t1322 - t1332;
        const P t1334 = t1322 + t1332;
        const P t1335 = c[2] * t1110;
        const P t1336 = t1241 + t1335;
        const P t1337 = c[4] * t1098;
        const P t1338 = flipped<0, 1>(t1336);
        const P t1339 = t1337 + t1338;
        const P t1340 = P(c[1], -c[1]) * t1086;
        const P t1341 = t1339 + t1340;
        const P t1342 = flipped<1, 0>(t1341);
        const P t1343 = P(c[0], -c[0]) * t1074;
        const P t1344 = t1342 + t1343;
        const P t1345 = P(c[3], -c[3]) * t1062;
        const P t1346 = t1344 + t1345;
        const P t1347 = P(-c[6], c[6]) * t1113;
        const P t1348 = c[9] * t1101;
        const P t1349 = t1347 + t1348;
        const P t1350 = c[5] * t1089;
        const P t1351 = t1349 + t1350;
        const P t1352 = P(-c[8], c[8]) * t1077;
        const P t1353 = flipped<0, 1>(t1351);
        const P t1354 = t1352 + t1353;
        const P t1355 = c[7] * t1065;
        const P t1356 = t1354 - t1355;
        const P t1357 = t1346 - t1356;
        const P t1358 = t1346 + t1356;
        // spectrum block of 2
        const P t1359 = t1125 + t1242;
        const P t1360 = t1125 - t1242;
        // spectrum block of 2
        const P t1361 = t1166 + t1285;
        const P t1362 = t1166 - t1285;
        // spectrum block of 2
        const P t1363 = t1210 + t1333;
        const P t1364 = t1210 - t1333;
        // spectrum block of 2
        const P t1365 = t1233 + t1358;
        const P t1366 = t1233 - t1358;
        // spectrum block of 2
        const P t1367 = t1189 + t1310;
        const P t1368 = t1189 - t1310;
        // spectrum block of 2
        const P t1369 = t1146 + t1264;
        const P t1370 = t1146 - t1264;
        // spectrum block of 2
        const P t1371 = t1145 + t1263;
        const P t1372 = t1145 - t1263;
        // spectrum block of 2
        const P t1373 = t1188 + t1309;
        const P t1374 = t1188 - t1309;
        // spectrum block of 2
        const P t1375 = t1232 + t1357;
        const P t1376 = t1232 - t1357;
        // spectrum block of 2
        const P t1377 = t1211 + t1334;
        const P t1378 = t1211 - t1334;
        // spectrum block of 2
        const P t1379 = t1167 + t1286;
        const P t1380 = t1167 - t1286;
        const P t1381 = flipped<0, 1>(t1057);
        // spectrum block of 23
        const P t1382 = t771 + t1381;
        const V t1383 = part<0>(t1382);
        const V t1384 = part<1>(t1382);
        // output stage
        const V t1385 = t1383 - t1384;
        io.out(1, t1385);
        const V t1386 = t1383 + t1384;
        io.out(46, t1386);
        const V t1387 = part<0>(t1370);
        const V t1388 = part<1>(t1372);
        const V t1389 = t1387 - t1388;
        io.out(2, t1389);
        const V t1390 = t1387 + t1388;
        io.out(45, t1390);
        const V t1391 = part<0>(t1365);
        const V t1392 = part<1>(t1367);
        const V t1393 = t1391 - t1392;
        io.out(3, t1393);
        const V t1394 = t1391 + t1392;
        io.out(44, t1394);
        const V t1395 = part<0>(t1368);
        const V t1396 = part<1>(t1370);
        const V t1397 = t1395 - t1396;
        io.out(4, t1397);
        const V t1398 = t1395 + t1396;
        io.out(43, t1398);
        const V t1399 = part<0>(t1360);
        const V t1400 = part<1>(t1362);
        const V t1401 = t1399 + t1400;
        io.out(5, t1401);
        const V t1402 = t1399 - t1400;
        io.out(42, t1402);
        const V t1403 = part<0>(t1375);
        const V t1404 = part<1>(t1377);
        const V t1405 = t1403 - t1404;
        io.out(6, t1405);
        const V t1406 = t1403 + t1404;
        io.out(41, t1406);
        const V t1407 = part<0>(t1372);
        const V t1408 = part<1>(t1374);
        const V t1409 = t1407 - t1408;
        io.out(7, t1409);
        const V t1410 = t1407 + t1408;
        io.out(40, t1410);
        const V t1411 = part<0>(t1376);
        const V t1412 = part<1>(t1378);
        const V t1413 = t1411 - t1412;
        io.out(8, t1413);
        const V t1414 = t1411 + t1412;
        io.out(39, t1414);
        const V t1415 = part<0>(t1363);
        const V t1416 = part<1>(t1365);
        const V t1417 = t1415 - t1416;
        io.out(9, t1417);
        const V t1418 = t1415 + t1416;
        io.out(38, t1418);
        const V t1419 = part<0>(t1377);
        const V t1420 = part<1>(t1379);
        const V t1421 = t1419 + t1420;
        io.out(10, t1421);
        const V t1422 = t1419 - t1420;
        io.out(37, t1422);
        const V t1423 = part<0>(t1373);
        const V t1424 = part<1>(t1375);
        const V t1425 = t1423 + t1424;
        io.out(11, t1425);
        const V t1426 = t1423 - t1424;
        io.out(36, t1426);
        const V t1427 = part<0>(t1367);
        const V t1428 = part<1>(t1369);
        const V t1429 = t1427 - t1428;
        io.out(12, t1429);
        const V t1430 = t1427 + t1428;
        io.out(35, t1430);
        const V t1431 = part<0>(t1361);
        const V t1432 = part<1>(t1363);
        const V t1433 = t1431 + t1432;
        io.out(13, t1433);
        const V t1434 = t1431 - t1432;
        io.out(34, t1434);
        const V t1435 = part<0>(t1378);
        const V t1436 = part<1>(t1380);
        const V t1437 = t1435 - t1436;
        io.out(14, t1437);
        const V t1438 = t1435 + t1436;
        io.out(33, t1438);
        const V t1439 = part<0>(t1379);
        const V t1440 = part<1>(t1359);
        const V t1441 = t1439 + t1440;
        io.out(15, t1441);
        const V t1442 = t1439 - t1440;
        io.out(32, t1442);
        const V t1443 = part<0>(t1366);
        const V t1444 = part<1>(t1368);
        const V t1445 = t1443 - t1444;
        io.out(16, t1445);
        const V t1446 = t1443 + t1444;
        io.out(31, t1446);
        const V t1447 = part<0>(t1374);
        const V t1448 = part<1>(t1376);
        const V t1449 = t1447 - t1448;
        io.out(17, t1449);
        const V t1450 = t1447 + t1448;
        io.out(30, t1450);
        const V t1451 = part<0>(t1362);
        const V t1452 = part<1>(t1364);
        const V t1453 = t1451 - t1452;
        io.out(18, t1453);
        const V t1454 = t1451 + t1452;
        io.out(29, t1454);
        const V t1455 = part<0>(t1359);
        const V t1456 = part<1>(t1361);
        const V t1457 = t1455 + t1456;
        io.out(19, t1457);
        const V t1458 = t1455 - t1456;
        io.out(28, t1458);
        const V t1459 = part<0>(t1371);
        const V t1460 = part<1>(t1373);
        const V t1461 = t1459 + t1460;
        io.out(20, t1461);
        const V t1462 = t1459 - t1460;
        io.out(27, t1462);
        const V t1463 = part<0>(t1364);
        const V t1464 = part<1>(t1366);
        const V t1465 = t1463 - t1464;
        io.out(21, t1465);
        const V t1466 = t1463 + t1464;
        io.out(26, t1466);
        const V t1467 = part<0>(t1380);
        const V t1468 = part<1>(t1360);
        const V t1469 = t1467 + t1468;
        io.out(22, t1469);
        const V t1470 = t1467 - t1468;
        io.out(25, t1470);
        const V t1471 = part<0>(t1369);
        const V t1472 = part<1>(t1371);
        const V t1473 = t1471 + t1472;
        io.out(23, t1473);
        const V t1474 = t1471 - t1472;
        io.out(24, t1474);
    }
};

}  // namespace zulg
