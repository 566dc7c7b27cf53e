// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 47.
// Inverse DFT to 47 real points, Rader 23, 2; two lanes to a register.
// 378 sums, 274 differences, 573 products of registers, which do the 2411 steps of the graph, those with
// `scale` included; 157 shuffles, 32 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<47> {
    static constexpr int steps = 2411;  // with `scale`
    static constexpr double inverseRoot = 0.14586499149789456;  // 1/sqrt(47), for `scale`
    static constexpr double constants[] = {
        0.41541501300188644,  // c[0]: cos 2 pi 2/11
        0.6548607339452851,  // c[1]: -cos 2 pi 18/11
        0.9594929736144974,  // c[2]: -cos 2 pi 6/11
        0.14231483827328514,  // c[3]: -cos 2 pi 8/11
        0.8412535328311812,  // c[4]: cos 2 pi 12/11
        0.28173255684142967,  // c[5]: -sin 2 pi 6/11
        0.9096319953545183,  // c[6]: sin 2 pi 2/11
        0.7557495743542583,  // c[7]: -sin 2 pi 18/11
        0.9898214418809327,  // c[8]: -sin 2 pi 8/11
        0.5406408174555976,  // c[9]: sin 2 pi 12/11
        2.0,  // c[10]: 2
        0.30901699437494745,  // c[11]: cos 2 pi 1/5
        0.8090169943749475,  // c[12]: -cos 2 pi 3/5
        0.5877852522924731,  // c[13]: -sin 2 pi 3/5
        0.9510565162951535,  // c[14]: sin 2 pi 1/5
        0.635213297150478,  // c[15]: -Q[1] of 11
        0.19106037559687397,  // c[16]: -P[1] of 11
        0.5272211128649671,  // c[17]: P[2] of 11
        0.4025393125514894,  // c[18]: Q[2] of 11
        0.4262349587304204,  // c[19]: Q[3] of 11
        0.5082556049431003,  // c[20]: -P[3] of 11
        0.41403241996621415,  // c[21]: P[4] of 11
        0.5182443007085755,  // c[22]: Q[4] of 11
        0.045454545454545456,  // c[23]: 1/22
        0.06955203016683642,  // c[24]: P[1] of 23
        0.4304011613922187,  // c[25]: -Q[1] of 23
        0.04453017869194607,  // c[26]: P[2] of 23
        0.43370463199482034,  // c[27]: Q[2] of 23
        0.27718353274096963,  // c[28]: P[3] of 23
        0.33652924658242556,  // c[29]: Q[3] of 23
        0.37256465572342584,  // c[30]: P[4] of 23
        0.22644695169903334,  // c[31]: Q[4] of 23
        0.43594373606982356,  // c[32]: P[5] of 23
        0.005975249750696167,  // c[33]: Q[5] of 23
        0.16641042622004737,  // c[34]: P[6] of 23
        0.4029766924691319,  // c[35]: Q[6] of 23
        0.17583093692664623,  // c[36]: P[7] of 23
        0.3989562961623703,  // c[37]: -Q[7] of 23
        0.43595445213547385,  // c[38]: -Q[8] of 23
        0.005134227435360646,  // c[39]: -P[8] of 23
        0.43504853203320293,  // c[40]: Q[9] of 23
        0.028555549440596593,  // c[41]: -P[9] of 23
        0.4300007996022861,  // c[42]: P[10] of 23
        0.07198581089002037,  // c[43]: -Q[10] of 23
        0.1,  // c[44]: 1/10
        0.33166247903553997,  // c[45]: -beta of 11
        0.21799234196875997,  // c[46]: -beta of 23
        0.17418154463549565,  // c[47]: P[1] of 23
        0.39967916400094217,  // c[48]: -Q[1] of 23
        0.4130101145562366,  // c[49]: P[2] of 23
        0.1396613400420585,  // c[50]: Q[2] of 23
        0.2936565344532715,  // c[51]: -P[3] of 23
        0.3222553093449257,  // c[52]: -Q[3] of 23
        0.42985679697172136,  // c[53]: -Q[4] of 23
        0.07284077652875139,  // c[54]: -P[4] of 23
        0.4166015292602189,  // c[55]: P[5] of 23
        0.12855275355334153,  // c[56]: -Q[5] of 23
        0.3397700700904962,  // c[57]: -Q[6] of 23
        0.2732012886111602,  // c[58]: -P[6] of 23
        0.3941449686576057,  // c[59]: Q[7] of 23
        0.1863662746045921,  // c[60]: -P[7] of 23
        0.4322477411542684,  // c[61]: P[8] of 23
        0.05696081894716527,  // c[62]: Q[8] of 23
        0.15475065017493012,  // c[63]: Q[9] of 23
        0.4075964682115579,  // c[64]: P[9] of 23
        0.4006581594304406,  // c[65]: P[10] of 23
        0.1719176660785936,  // c[66]: Q[10] of 23
        0.07666693363263027,  // c[67]: -Q[1] of 47
        0.28804350746847646,  // c[68]: -P[1] of 47
        0.008832023771285981,  // c[69]: -P[2] of 47
        0.29794106172777834,  // c[70]: -Q[2] of 47
        0.2842707357056497,  // c[71]: Q[3] of 47
        0.08964948259048153,  // c[72]: -P[3] of 47
        0.05154770209002698,  // c[73]: P[4] of 47
        0.29358084971028037,  // c[74]: -Q[4] of 47
        0.2629127604291154,  // c[75]: -Q[5] of 47
        0.14044130913272984,  // c[76]: -P[5] of 47
        0.15748304001523897,  // c[77]: P[6] of 47
        0.2530730586509181,  // c[78]: Q[6] of 47
        0.2253348149666044,  // c[79]: -Q[7] of 47
        0.19511817463101316,  // c[80]: P[7] of 47
        0.2909715633752674,  // c[81]: Q[8] of 47
        0.0646717110823977,  // c[82]: -P[8] of 47
        0.24456745001673655,  // c[83]: -Q[9] of 47
        0.1703926151559494,  // c[84]: -P[9] of 47
        0.29805497904125694,  // c[85]: P[10] of 47
        0.003179681758961217,  // c[86]: -Q[10] of 47
        0.2980701900263497,  // c[87]: P[11] of 47
        0.001021139083650161,  // c[88]: Q[11] of 47
        0.2269877535073196,  // c[89]: P[12] of 47
        0.19319275520855517,  // c[90]: Q[12] of 47
        0.11563732379437514,  // c[91]: -Q[13] of 47
        0.27472693761815065,  // c[92]: -P[13] of 47
        0.23836550985857274,  // c[93]: Q[14] of 47
        0.1789658196897806,  // c[94]: P[14] of 47
        0.14112956895447787,  // c[95]: Q[15] of 47
        0.2625439499857037,  // c[96]: -P[15] of 47
        0.06103657603519695,  // c[97]: P[16] of 47
        0.29175574937483584,  // c[98]: Q[16] of 47
        0.29791486856558863,  // c[99]: P[17] of 47
        0.00967532918925448,  // c[100]: Q[17] of 47
        0.2977690620997712,  // c[101]: P[18] of 47
        0.01343378441076761,  // c[102]: -Q[18] of 47
        0.20849132949956667,  // c[103]: P[19] of 47
        0.2130217041310005,  // c[104]: Q[19] of 47
        0.19315799475712486,  // c[105]: -P[20] of 47
        0.22701733407116498,  // c[106]: -Q[20] of 47
        0.061064911787258154,  // c[107]: P[21] of 47
        0.2917498199755859,  // c[108]: Q[21] of 47
        0.297974179874349,  // c[109]: Q[22] of 47
        0.007633415721779962,  // c[110]: P[22] of 47
        0.021739130434782608,  // c[111]: 1/46
        0.14903596957393575,  // c[112]: -beta of 47
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x5 = io.pair(5);
        // doubled bins
        const P t0 = c[10] * x5;
        const P x19 = io.pair(19);
        const P t1 = c[10] * x19;
        // real block of 2
        const P t2 = t0 + t1;
        const P t3 = shuffled<0, 3>(t0, t1);
        const P t4 = shuffled<0, 3>(t1, t0);
        const P t5 = t3 - t4;
        const P x22 = io.pair(22);
        // doubled bins
        const P t6 = c[10] * x22;
        const P x15 = io.pair(15);
        const P t7 = c[10] * x15;
        // real block of 2
        const P t8 = t6 + t7;
        const P t9 = shuffled<0, 3>(t6, t7);
        const P t10 = shuffled<0, 3>(t7, t6);
        const P t11 = t9 - t10;
        const P x14 = io.pair(14);
        // doubled bins
        const P t12 = c[10] * x14;
        const P x10 = io.pair(10);
        const P t13 = P(c[10], -c[10]) * x10;
        // real block of 2
        const P t14 = t12 + t13;
        const P t15 = t12 - t13;
        const P x8 = io.pair(8);
        // doubled bins
        const P t16 = c[10] * x8;
        const P x6 = io.pair(6);
        const P t17 = c[10] * x6;
        // real block of 2
        const P t18 = t16 + t17;
        const P t19 = t16 - t17;
        const P x17 = io.pair(17);
        // doubled bins
        const P t20 = c[10] * x17;
        const P x11 = io.pair(11);
        const P t21 = P(c[10], -c[10]) * x11;
        // real block of 2
        const P t22 = t20 + t21;
        const P t23 = t20 - t21;
        const P x7 = io.pair(7);
        // doubled bins
        const P t24 = c[10] * x7;
        const P x20 = io.pair(20);
        const P t25 = P(c[10], -c[10]) * x20;
        // real block of 2
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        const P x2 = io.pair(2);
        // doubled bins
        const P t28 = c[10] * x2;
        const P x23 = io.pair(23);
        const P t29 = P(c[10], -c[10]) * x23;
        // real block of 2
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        const P x4 = io.pair(4);
        // doubled bins
        const P t32 = c[10] * x4;
        const P x12 = io.pair(12);
        const P t33 = c[10] * x12;
        // real block of 2
        const P t34 = t32 + t33;
        const P t35 = t32 - t33;
        const P x16 = io.pair(16);
        // doubled bins
        const P t36 = c[10] * x16;
        const P x3 = io.pair(3);
        const P t37 = c[10] * x3;
        // real block of 2
        const P t38 = t36 + t37;
        const P t39 = t36 - t37;
        const P x21 = io.pair(21);
        // doubled bins
        const P t40 = c[10] * x21;
        const P x9 = io.pair(9);
        const P t41 = c[10] * x9;
        // real block of 2
        const P t42 = t40 + t41;
        const P t43 = t40 - t41;
        const P x18 = io.pair(18);
        // doubled bins
        const P t44 = c[10] * x18;
        const P x13 = io.pair(13);
        const P t45 = P(c[10], -c[10]) * x13;
        // real block of 2
        const P t46 = t44 + t45;
        const P t47 = t44 - t45;
        const P t48 = flipped<0, 1>(t8);
        // real block of 11, multiplier 2
        const P t49 = t46 + t48;
        const P t50 = flipped<1, 0>(t46);
        const P t51 = t8 + t50;
        const P t52 = t42 + t14;
        const P t53 = t42 - t14;
        const P t54 = t18 + t38;
        const P t55 = t18 - t38;
        const P t56 = t22 + t34;
        const P t57 = t22 - t34;
        const P t58 = t30 + t26;
        const P t59 = t30 - t26;
        const P t60 = t49 + t52;
        const P t61 = t60 + t54;
        const P t62 = t61 + t56;
        const P t63 = t62 + t58;
        const P t64 = flipped<0, 1>(t2);
        const P t65 = t63 + t64;
        const P t66 = c[0] * t49;
        const P t67 = c[1] * t52;
        const P t68 = t66 - t67;
        const P t69 = c[2] * t54;
        const P t70 = t68 - t69;
        const P t71 = c[3] * t56;
        const P t72 = t70 - t71;
        const P t73 = c[4] * t58;
        const P t74 = t72 + t73;
        const P t75 = t74 + t64;
        const P t76 = c[5] * t55;
        const P t77 = c[6] * t51;
        const P t78 = shuffled<0, 3>(t76, t77);
        const P t79 = c[7] * t53;
        const P t80 = t78 + t79;
        const P t81 = c[8] * t57;
        const P t82 = shuffled<0, 3>(t81, t76);
        const P t83 = t80 + t82;
        const P t84 = shuffled<0, 3>(t77, t81);
        const P t85 = flipped<1, 0>(t84);
        const P t86 = t83 + t85;
        const P t87 = c[9] * t59;
        const P t88 = t86 - t87;
        const P t89 = P(-c[1], c[1]) * t49;
        const P t90 = t2 + t89;
        const P t91 = P(-c[3], c[3]) * t52;
        const P t92 = t90 + t91;
        const P t93 = c[4] * t54;
        const P t94 = flipped<0, 1>(t92);
        const P t95 = t93 + t94;
        const P t96 = c[2] * t56;
        const P t97 = t95 - t96;
        const P t98 = c[0] * t58;
        const P t99 = t97 + t98;
        const P t100 = c[7] * t51;
        const P t101 = P(c[8], -c[8]) * t53;
        const P t102 = t100 + t101;
        const P t103 = P(c[9], -c[9]) * t55;
        const P t104 = t102 + t103;
        const P t105 = P(c[5], -c[5]) * t57;
        const P t106 = t104 + t105;
        const P t107 = P(c[6], -c[6]) * t59;
        const P t108 = t106 + t107;
        const P t109 = P(-c[2], c[2]) * t49;
        const P t110 = t2 + t109;
        const P t111 = c[4] * t52;
        const P t112 = flipped<0, 1>(t110);
        const P t113 = t111 + t112;
        const P t114 = c[1] * t54;
        const P t115 = t113 - t114;
        const P t116 = c[0] * t56;
        const P t117 = t115 + t116;
        const P t118 = c[3] * t58;
        const P t119 = t117 - t118;
        const P t120 = c[9] * t53;
        const P t121 = c[5] * t51;
        const P t122 = c[7] * t55;
        const P t123 = shuffled<0, 3>(t121, t122);
        const P t124 = t120 + t123;
        const P t125 = shuffled<0, 3>(t122, t121);
        const P t126 = flipped<0, 1>(t125);
        const P t127 = t124 + t126;
        const P t128 = c[6] * t57;
        const P t129 = t127 - t128;
        const P t130 = c[8] * t59;
        const P t131 = t129 - t130;
        const P t132 = P(-c[3], c[3]) * t49;
        const P t133 = t2 + t132;
        const P t134 = P(-c[2], c[2]) * t52;
        const P t135 = t133 + t134;
        const P t136 = c[0] * t54;
        const P t137 = flipped<0, 1>(t135);
        const P t138 = t136 + t137;
        const P t139 = c[4] * t56;
        const P t140 = t138 + t139;
        const P t141 = c[1] * t58;
        const P t142 = t140 - t141;
        const P t143 = c[5] * t53;
        const P t144 = c[8] * t51;
        const P t145 = c[9] * t57;
        const P t146 = shuffled<0, 3>(t144, t145);
        const P t147 = t143 + t146;
        const P t148 = shuffled<0, 3>(t145, t144);
        const P t149 = flipped<0, 1>(t148);
        const P t150 = t147 + t149;
        const P t151 = c[6] * t55;
        const P t152 = t150 - t151;
        const P t153 = c[7] * t59;
        const P t154 = t152 - t153;
        const P t155 = c[4] * t49;
        const P t156 = c[0] * t52;
        const P t157 = t155 + t156;
        const P t158 = c[3] * t54;
        const P t159 = t157 - t158;
        const P t160 = c[1] * t56;
        const P t161 = t159 - t160;
        const P t162 = c[2] * t58;
        const P t163 = t161 - t162;
        const P t164 = t163 + t64;
        const P t165 = c[8] * t55;
        const P t166 = c[9] * t51;
        const P t167 = c[7] * t57;
        const P t168 = shuffled<0, 3>(t166, t167);
        const P t169 = t165 + t168;
        const P t170 = shuffled<0, 3>(t167, t166);
        const P t171 = flipped<0, 1>(t170);
        const P t172 = t169 + t171;
        const P t173 = c[6] * t53;
        const P t174 = t172 - t173;
        const P t175 = c[5] * t59;
        const P t176 = t174 - t175;
        // real block of 11, multiplier 2
        const P t177 = t11 + t47;
        const P t178 = t11 - t47;
        const P t179 = t43 + t15;
        const P t180 = t43 - t15;
        const P t181 = t19 + t39;
        const P t182 = t19 - t39;
        const P t183 = t23 + t35;
        const P t184 = t23 - t35;
        const P t185 = t31 + t27;
        const P t186 = t31 - t27;
        const P t187 = t177 + t179;
        const P t188 = t187 + t181;
        const P t189 = t188 + t183;
        const P t190 = t189 + t185;
        const P t191 = t190 + t5;
        const P t192 = c[0] * t177;
        const P t193 = c[1] * t179;
        const P t194 = t192 - t193;
        const P t195 = c[2] * t181;
        const P t196 = t194 - t195;
        const P t197 = c[3] * t183;
        const P t198 = t196 - t197;
        const P t199 = c[4] * t185;
        const P t200 = t198 + t199;
        const P t201 = t200 + t5;
        const P t202 = c[7] * t180;
        const P t203 = c[5] * t182;
        const P t204 = t202 + t203;
        const P t205 = c[8] * t184;
        const P t206 = t204 + t205;
        const P t207 = c[6] * t178;
        const P t208 = t206 - t207;
        const P t209 = c[9] * t186;
        const P t210 = t208 - t209;
        const P t211 = c[1] * t177;
        const P t212 = t5 - t211;
        const P t213 = c[3] * t179;
        const P t214 = t212 - t213;
        const P t215 = c[4] * t181;
        const P t216 = t214 + t215;
        const P t217 = c[2] * t183;
        const P t218 = t216 - t217;
        const P t219 = c[0] * t185;
        const P t220 = t218 + t219;
        const P t221 = c[7] * t178;
        const P t222 = c[8] * t180;
        const P t223 = t221 + t222;
        const P t224 = c[9] * t182;
        const P t225 = t223 + t224;
        const P t226 = c[5] * t184;
        const P t227 = t225 + t226;
        const P t228 = c[6] * t186;
        const P t229 = t227 + t228;
        const P t230 = c[2] * t177;
        const P t231 = t5 - t230;
        const P t232 = c[4] * t179;
        const P t233 = t231 + t232;
        const P t234 = c[1] * t181;
        const P t235 = t233 - t234;
        const P t236 = c[0] * t183;
        const P t237 = t235 + t236;
        const P t238 = c[3] * t185;
        const P t239 = t237 - t238;
        const P t240 = c[5] * t178;
        const P t241 = c[9] * t180;
        const P t242 = t240 + t241;
        const P t243 = c[7] * t182;
        const P t244 = t242 + t243;
        const P t245 = c[6] * t184;
        const P t246 = t244 - t245;
        const P t247 = c[8] * t186;
        const P t248 = t246 - t247;
        const P t249 = c[3] * t177;
        const P t250 = t5 - t249;
        const P t251 = c[2] * t179;
        const P t252 = t250 - t251;
        const P t253 = c[0] * t181;
        const P t254 = t252 + t253;
        const P t255 = c[4] * t183;
        const P t256 = t254 + t255;
        const P t257 = c[1] * t185;
        const P t258 = t256 - t257;
        const P t259 = c[8] * t178;
        const P t260 = c[5] * t180;
        const P t261 = t259 + t260;
        const P t262 = c[9] * t184;
        const P t263 = t261 + t262;
        const P t264 = c[6] * t182;
        const P t265 = t263 - t264;
        const P t266 = c[7] * t186;
        const P t267 = t265 - t266;
        const P t268 = c[4] * t177;
        const P t269 = c[0] * t179;
        const P t270 = t268 + t269;
        const P t271 = c[3] * t181;
        const P t272 = t270 - t271;
        const P t273 = c[1] * t183;
        const P t274 = t272 - t273;
        const P t275 = c[2] * t185;
        const P t276 = t274 - t275;
        const P t277 = t276 + t5;
        const P t278 = c[9] * t178;
        const P t279 = c[8] * t182;
        const P t280 = t278 + t279;
        const P t281 = c[7] * t184;
        const P t282 = t280 + t281;
        const P t283 = c[6] * t180;
        const P t284 = t282 - t283;
        const P t285 = c[5] * t186;
        const P t286 = t284 - t285;
        const P x1 = io.pair(1);
        // doubled bins
        const P t287 = c[10] * x1;
        // real block of 23
        const P t288 = t287 + t65;
        const P t289 = c[23] * t65;
        const P t290 = t287 - t289;
        const P t291 = c[24] * t277;
        const P t292 = c[25] * t286;
        const P t293 = t291 - t292;
        const P t294 = c[24] * t286;
        const P t295 = c[25] * t277;
        const P t296 = t294 + t295;
        const P t297 = c[26] * t75;
        const P t298 = c[27] * t88;
        const P t299 = t297 - t298;
        const P t300 = c[26] * t88;
        const P t301 = c[27] * t75;
        const P t302 = t300 + t301;
        const P t303 = c[28] * t258;
        const P t304 = c[29] * t267;
        const P t305 = t303 + t304;
        const P t306 = c[29] * t258;
        const P t307 = c[28] * t267;
        const P t308 = t306 - t307;
        const P t309 = c[30] * t99;
        const P t310 = P(c[31], -c[31]) * t108;
        const P t311 = t309 + t310;
        const P t312 = P(-c[30], c[30]) * t108;
        const P t313 = c[31] * t99;
        const P t314 = t312 + t313;
        const P t315 = c[32] * t239;
        const P t316 = c[33] * t248;
        const P t317 = t315 + t316;
        const P t318 = c[33] * t239;
        const P t319 = c[32] * t248;
        const P t320 = t318 - t319;
        const P t321 = c[34] * t119;
        const P t322 = c[35] * t131;
        const P t323 = t321 - t322;
        const P t324 = c[34] * t131;
        const P t325 = c[35] * t119;
        const P t326 = t324 + t325;
        const P t327 = c[36] * t220;
        const P t328 = c[37] * t229;
        const P t329 = t327 + t328;
        const P t330 = c[36] * t229;
        const P t331 = c[37] * t220;
        const P t332 = t330 - t331;
        const P t333 = c[38] * t154;
        const P t334 = c[39] * t142;
        const P t335 = t333 - t334;
        const P t336 = c[39] * t154;
        const P t337 = c[38] * t142;
        const P t338 = t336 + t337;
        const P t339 = c[40] * t210;
        const P t340 = c[41] * t201;
        const P t341 = t339 - t340;
        const P t342 = c[41] * t210;
        const P t343 = c[40] * t201;
        const P t344 = t342 + t343;
        const P t345 = c[42] * t164;
        const P t346 = c[43] * t176;
        const P t347 = t345 + t346;
        const P t348 = c[42] * t176;
        const P t349 = c[43] * t164;
        const P t350 = t348 - t349;
        // real block of 5
        const P t351 = t311 + t347;
        const P t352 = t311 - t347;
        const P t353 = t323 + t335;
        const P t354 = t323 - t335;
        const P t355 = t351 + t353;
        const P t356 = t355 + t299;
        const P t357 = c[11] * t351;
        const P t358 = c[12] * t353;
        const P t359 = t357 - t358;
        const P t360 = t359 + t299;
        const P t361 = c[13] * t354;
        const P t362 = c[14] * t352;
        const P t363 = t361 - t362;
        const P t364 = c[12] * t351;
        const P t365 = t299 - t364;
        const P t366 = c[11] * t353;
        const P t367 = t365 + t366;
        const P t368 = c[13] * t352;
        const P t369 = c[14] * t354;
        const P t370 = t368 + t369;
        // real block of 5
        const P t371 = t350 - t314;
        const P t372 = t314 + t350;
        const P t373 = t326 - t338;
        const P t374 = t326 + t338;
        const P t375 = t371 + t373;
        const P t376 = t375 + t302;
        const P t377 = c[11] * t371;
        const P t378 = c[12] * t373;
        const P t379 = t377 - t378;
        const P t380 = t379 + t302;
        const P t381 = c[14] * t372;
        const P t382 = c[13] * t374;
        const P t383 = t381 + t382;
        const P t384 = c[12] * t371;
        const P t385 = t302 - t384;
        const P t386 = c[11] * t373;
        const P t387 = t385 + t386;
        const P t388 = c[13] * t372;
        const P t389 = c[14] * t374;
        const P t390 = t388 - t389;
        // spectrum block of 11
        const P t391 = c[44] * t356;
        const P t392 = t290 - t391;
        const P t393 = c[15] * t387;
        const P t394 = c[16] * t390;
        const P t395 = t393 + t394;
        const P t396 = c[15] * t390;
        const P t397 = c[16] * t387;
        const P t398 = t396 - t397;
        const P t399 = c[17] * t360;
        const P t400 = c[18] * t363;
        const P t401 = t399 - t400;
        const P t402 = c[17] * t363;
        const P t403 = c[18] * t360;
        const P t404 = t402 + t403;
        const P t405 = c[19] * t380;
        const P t406 = c[20] * t383;
        const P t407 = t405 - t406;
        const P t408 = c[19] * t383;
        const P t409 = c[20] * t380;
        const P t410 = t408 + t409;
        const P t411 = c[21] * t367;
        const P t412 = c[22] * t370;
        const P t413 = t411 + t412;
        const P t414 = c[22] * t367;
        const P t415 = c[21] * t370;
        const P t416 = t414 - t415;
        const P t417 = c[45] * t376;
        // spectrum block of 2
        const P t418 = t392 - t417;
        const P t419 = t392 + t417;
        // complex block of 2
        const P t420 = t404 + t410;
        const P t421 = t401 + t407;
        const P t422 = t404 - t410;
        const P t423 = t401 - t407;
        // complex block of 2
        const P t424 = t416 - t398;
        const P t425 = t413 - t395;
        const P t426 = t416 + t398;
        const P t427 = t413 + t395;
        // spectrum block of 5, multiplier 2
        const P t428 = t421 + t425;
        const P t429 = t428 + t418;
        const P t430 = c[11] * t421;
        const P t431 = c[12] * t425;
        const P t432 = t430 - t431;
        const P t433 = t432 + t418;
        const P t434 = c[14] * t420;
        const P t435 = c[13] * t424;
        const P t436 = t434 + t435;
        const P t437 = t433 - t436;
        const P t438 = t433 + t436;
        const P t439 = c[12] * t421;
        const P t440 = t418 - t439;
        const P t441 = c[11] * t425;
        const P t442 = t440 + t441;
        const P t443 = c[13] * t420;
        const P t444 = c[14] * t424;
        const P t445 = t443 - t444;
        const P t446 = t442 - t445;
        const P t447 = t442 + t445;
        // spectrum block of 5, multiplier 2
        const P t448 = t423 + t427;
        const P t449 = t448 + t419;
        const P t450 = c[11] * t423;
        const P t451 = c[12] * t427;
        const P t452 = t450 - t451;
        const P t453 = t452 + t419;
        const P t454 = c[14] * t422;
        const P t455 = c[13] * t426;
        const P t456 = t454 + t455;
        const P t457 = t453 - t456;
        const P t458 = t453 + t456;
        const P t459 = c[12] * t423;
        const P t460 = t419 - t459;
        const P t461 = c[11] * t427;
        const P t462 = t460 + t461;
        const P t463 = c[13] * t422;
        const P t464 = c[14] * t426;
        const P t465 = t463 - t464;
        const P t466 = t462 - t465;
        const P t467 = t462 + t465;
        // spectrum block of 11
        const P t468 = t290 + t356;
        // real block of 5
        const P t469 = t332 - t296;
        const P t470 = t332 + t296;
        const P t471 = t320 + t308;
        const P t472 = t320 - t308;
        const P t473 = t469 + t471;
        const P t474 = t473 + t344;
        const P t475 = c[11] * t469;
        const P t476 = c[12] * t471;
        const P t477 = t475 - t476;
        const P t478 = t477 + t344;
        const P t479 = c[13] * t472;
        const P t480 = c[14] * t470;
        const P t481 = t479 - t480;
        const P t482 = c[12] * t469;
        const P t483 = t344 - t482;
        const P t484 = c[11] * t471;
        const P t485 = t483 + t484;
        const P t486 = c[13] * t470;
        const P t487 = c[14] * t472;
        const P t488 = t486 + t487;
        // real block of 5
        const P t489 = t293 - t329;
        const P t490 = t329 + t293;
        const P t491 = t317 + t305;
        const P t492 = t317 - t305;
        const P t493 = t489 + t491;
        const P t494 = t493 + t341;
        const P t495 = c[11] * t489;
        const P t496 = c[12] * t491;
        const P t497 = t495 - t496;
        const P t498 = t497 + t341;
        const P t499 = c[14] * t490;
        const P t500 = c[13] * t492;
        const P t501 = t499 + t500;
        const P t502 = c[12] * t489;
        const P t503 = t341 - t502;
        const P t504 = c[11] * t491;
        const P t505 = t503 + t504;
        const P t506 = c[13] * t490;
        const P t507 = c[14] * t492;
        const P t508 = t506 - t507;
        // real block of 23
        const P t509 = c[46] * t191;
        // spectrum block of 11
        const P t510 = c[44] * t474;
        const P t511 = t509 + t510;
        const P t512 = c[15] * t505;
        const P t513 = c[16] * t508;
        const P t514 = t512 + t513;
        const P t515 = c[15] * t508;
        const P t516 = c[16] * t505;
        const P t517 = t515 - t516;
        const P t518 = c[17] * t478;
        const P t519 = c[18] * t481;
        const P t520 = t518 - t519;
        const P t521 = c[17] * t481;
        const P t522 = c[18] * t478;
        const P t523 = t521 + t522;
        const P t524 = c[19] * t498;
        const P t525 = c[20] * t501;
        const P t526 = t524 - t525;
        const P t527 = c[19] * t501;
        const P t528 = c[20] * t498;
        const P t529 = t527 + t528;
        const P t530 = c[21] * t485;
        const P t531 = c[22] * t488;
        const P t532 = t530 + t531;
        const P t533 = c[22] * t485;
        const P t534 = c[21] * t488;
        const P t535 = t533 - t534;
        const P t536 = c[45] * t494;
        // spectrum block of 2
        const P t537 = t511 + t536;
        const P t538 = t536 - t511;
        // complex block of 2
        const P t539 = t523 + t529;
        const P t540 = t520 + t526;
        const P t541 = t523 - t529;
        const P t542 = t520 - t526;
        // complex block of 2
        const P t543 = t535 - t517;
        const P t544 = t532 - t514;
        const P t545 = t535 + t517;
        const P t546 = t532 + t514;
        // spectrum block of 5, multiplier 2
        const P t547 = t540 + t544;
        const P t548 = t547 - t537;
        const P t549 = c[11] * t540;
        const P t550 = c[12] * t544;
        const P t551 = t549 - t550;
        const P t552 = t551 - t537;
        const P t553 = c[14] * t539;
        const P t554 = c[13] * t543;
        const P t555 = t553 + t554;
        const P t556 = t552 - t555;
        const P t557 = t552 + t555;
        const P t558 = c[12] * t540;
        const P t559 = t537 + t558;
        const P t560 = c[11] * t544;
        const P t561 = t560 - t559;
        const P t562 = c[13] * t539;
        const P t563 = c[14] * t543;
        const P t564 = t562 - t563;
        const P t565 = t561 - t564;
        const P t566 = t561 + t564;
        // spectrum block of 5, multiplier 2
        const P t567 = t542 + t546;
        const P t568 = t567 + t538;
        const P t569 = c[11] * t542;
        const P t570 = c[12] * t546;
        const P t571 = t569 - t570;
        const P t572 = t571 + t538;
        const P t573 = c[14] * t541;
        const P t574 = c[13] * t545;
        const P t575 = t573 + t574;
        const P t576 = t572 - t575;
        const P t577 = t572 + t575;
        const P t578 = c[12] * t542;
        const P t579 = t538 - t578;
        const P t580 = c[11] * t546;
        const P t581 = t579 + t580;
        const P t582 = c[13] * t541;
        const P t583 = c[14] * t545;
        const P t584 = t582 - t583;
        const P t585 = t581 - t584;
        const P t586 = t581 + t584;
        // spectrum block of 11
        const P t587 = t474 - t509;
        const V x0r = io.re(0);
        const V t588 = part<0>(t288);
        // spectrum block of 47
        const V t589 = c[111] * t588;
        const V t590 = x0r - t589;
        const P t591 = shuffled<1, 3>(t458, t577);
        const P t592 = P(-c[67], c[67]) * t591;
        const P t593 = shuffled<1, 0>(t591);
        const P t594 = c[68] * t593;
        const P t595 = t592 + t594;
        const P t596 = shuffled<0, 2>(t468, t587);
        const P t597 = P(-c[69], c[69]) * t596;
        const P t598 = shuffled<1, 0>(t596);
        const P t599 = c[70] * t598;
        const P t600 = t597 + t599;
        const P t601 = shuffled<1, 3>(t466, t585);
        const P t602 = c[71] * t601;
        const P t603 = shuffled<1, 0>(t601);
        const P t604 = P(c[72], -c[72]) * t603;
        const P t605 = t602 + t604;
        const P t606 = shuffled<0, 2>(t438, t557);
        const P t607 = c[73] * t606;
        const P t608 = shuffled<1, 0>(t606);
        const P t609 = P(c[74], -c[74]) * t608;
        const P t610 = t607 + t609;
        const P t611 = shuffled<1, 3>(t429, t548);
        const P t612 = c[75] * t611;
        const P t613 = shuffled<1, 0>(t611);
        const P t614 = P(c[76], -c[76]) * t613;
        const P t615 = t612 + t614;
        const P t616 = shuffled<0, 2>(t457, t576);
        const P t617 = c[77] * t616;
        const P t618 = shuffled<1, 0>(t616);
        const P t619 = P(-c[78], c[78]) * t618;
        const P t620 = t617 + t619;
        const P t621 = shuffled<1, 3>(t437, t556);
        const P t622 = P(-c[79], c[79]) * t621;
        const P t623 = shuffled<1, 0>(t621);
        const P t624 = c[80] * t623;
        const P t625 = t622 + t624;
        const P t626 = shuffled<0, 2>(t586, t467);
        const P t627 = c[81] * t626;
        const P t628 = shuffled<1, 0>(t626);
        const P t629 = P(c[82], -c[82]) * t628;
        const P t630 = t627 + t629;
        const P t631 = shuffled<1, 3>(t446, t565);
        const P t632 = P(-c[83], c[83]) * t631;
        const P t633 = shuffled<1, 0>(t631);
        const P t634 = c[84] * t633;
        const P t635 = t632 + t634;
        const P t636 = shuffled<0, 2>(t449, t568);
        const P t637 = c[85] * t636;
        const P t638 = shuffled<1, 0>(t636);
        const P t639 = P(-c[86], c[86]) * t638;
        const P t640 = t637 + t639;
        const P t641 = shuffled<1, 3>(t566, t447);
        const P t642 = c[87] * t641;
        const P t643 = shuffled<1, 0>(t641);
        const P t644 = P(c[88], -c[88]) * t643;
        const P t645 = t642 + t644;
        const P t646 = shuffled<0, 2>(t447, t566);
        const P t647 = c[89] * t646;
        const P t648 = shuffled<1, 0>(t646);
        const P t649 = P(-c[90], c[90]) * t648;
        const P t650 = t647 + t649;
        const P t651 = shuffled<1, 3>(t449, t568);
        const P t652 = P(-c[91], c[91]) * t651;
        const P t653 = shuffled<1, 0>(t651);
        const P t654 = c[92] * t653;
        const P t655 = t652 + t654;
        const P t656 = shuffled<0, 2>(t565, t446);
        const P t657 = c[93] * t656;
        const P t658 = shuffled<1, 0>(t656);
        const P t659 = P(c[94], -c[94]) * t658;
        const P t660 = t657 + t659;
        const P t661 = shuffled<1, 3>(t467, t586);
        const P t662 = c[95] * t661;
        const P t663 = shuffled<1, 0>(t661);
        const P t664 = P(-c[96], c[96]) * t663;
        const P t665 = t662 + t664;
        const P t666 = shuffled<0, 2>(t437, t556);
        const P t667 = c[97] * t666;
        const P t668 = shuffled<1, 0>(t666);
        const P t669 = P(-c[98], c[98]) * t668;
        const P t670 = t667 + t669;
        const P t671 = shuffled<1, 3>(t576, t457);
        const P t672 = c[99] * t671;
        const P t673 = shuffled<1, 0>(t671);
        const P t674 = P(c[100], -c[100]) * t673;
        const P t675 = t672 + t674;
        const P t676 = shuffled<0, 2>(t429, t548);
        const P t677 = c[101] * t676;
        const P t678 = shuffled<1, 0>(t676);
        const P t679 = P(c[102], -c[102]) * t678;
        const P t680 = t677 + t679;
        const P t681 = shuffled<1, 3>(t557, t438);
        const P t682 = c[103] * t681;
        const P t683 = shuffled<1, 0>(t681);
        const P t684 = P(c[104], -c[104]) * t683;
        const P t685 = t682 + t684;
        const P t686 = shuffled<0, 2>(t466, t585);
        const P t687 = c[105] * t686;
        const P t688 = shuffled<1, 0>(t686);
        const P t689 = P(c[106], -c[106]) * t688;
        const P t690 = t687 + t689;
        const P t691 = shuffled<1, 3>(t587, t468);
        const P t692 = c[107] * t691;
        const P t693 = shuffled<1, 0>(t691);
        const P t694 = P(c[108], -c[108]) * t693;
        const P t695 = t692 + t694;
        const P t696 = shuffled<0, 2>(t577, t458);
        const P t697 = c[109] * t696;
        const P t698 = shuffled<1, 0>(t696);
        const P t699 = P(c[110], -c[110]) * t698;
        const P t700 = t697 + t699;
        const P t701 = shuffled<1, 3>(t610, t595);
        const P t702 = shuffled<1, 3>(t700, t685);
        const P t703 = flipped<1, 0>(t702);
        // real block of 11
        const P t704 = t701 + t703;
        const P t705 = shuffled<1, 3>(t640, t655);
        const P t706 = shuffled<1, 3>(t680, t615);
        const P t707 = t705 + t706;
        const P t708 = c[4] * t707;
        const V t709 = part<0>(t708);
        const V t710 = part<0>(t704);
        const V t711 = c[0] * t710;
        const V t712 = t709 + t711;
        const P t713 = shuffled<1, 3>(t690, t605);
        const P t714 = shuffled<1, 3>(t660, t635);
        const P t715 = flipped<0, 1>(t714);
        const P t716 = t713 + t715;
        const V t717 = part<0>(t716);
        const V t718 = c[3] * t717;
        const V t719 = t712 + t718;
        const P t720 = shuffled<1, 3>(t630, t665);
        const P t721 = shuffled<1, 3>(t650, t645);
        const P t722 = flipped<0, 1>(t721);
        const P t723 = t720 + t722;
        const V t724 = part<0>(t723);
        const V t725 = c[1] * t724;
        const V t726 = t719 - t725;
        const P t727 = shuffled<1, 3>(t670, t625);
        const P t728 = shuffled<1, 3>(t620, t675);
        const P t729 = t727 + t728;
        const V t730 = part<0>(t729);
        const V t731 = c[2] * t730;
        const V t732 = t726 - t731;
        const P t733 = c[0] * t707;
        const V t734 = part<0>(t733);
        const V t735 = c[1] * t710;
        const V t736 = t734 - t735;
        const V t737 = c[2] * t717;
        const V t738 = t736 + t737;
        const V t739 = c[3] * t724;
        const V t740 = t738 - t739;
        const V t741 = c[4] * t730;
        const V t742 = t740 + t741;
        const V t743 = part<1>(t600);
        const P t744 = c[3] * t707;
        const V t745 = part<0>(t744);
        const V t746 = t743 + t745;
        const V t747 = c[2] * t710;
        const V t748 = t746 + t747;
        const V t749 = c[0] * t717;
        const V t750 = t748 + t749;
        const V t751 = c[4] * t724;
        const V t752 = t751 - t750;
        const P t753 = c[1] * t707;
        const V t754 = part<0>(t753);
        const V t755 = t743 + t754;
        const V t756 = c[3] * t710;
        const V t757 = t755 + t756;
        const V t758 = c[4] * t717;
        const V t759 = t757 + t758;
        const V t760 = c[2] * t724;
        const V t761 = t759 + t760;
        const P t762 = c[2] * t707;
        const V t763 = part<0>(t762);
        const V t764 = t743 + t763;
        const V t765 = c[4] * t710;
        const V t766 = t765 - t764;
        const V t767 = c[1] * t717;
        const V t768 = t766 + t767;
        const V t769 = c[0] * t724;
        const V t770 = t768 + t769;
        const P t771 = shuffled<0, 2>(t640, t655);
        const P t772 = shuffled<0, 2>(t680, t615);
        const P t773 = flipped<0, 1>(t772);
        // real block of 11
        const P t774 = t771 + t773;
        const P t775 = t771 - t773;
        const P t776 = shuffled<0, 2>(t700, t595);
        const P t777 = shuffled<0, 2>(t610, t685);
        const P t778 = t776 + t777;
        const P t779 = t776 - t777;
        const P t780 = shuffled<0, 2>(t660, t605);
        const P t781 = shuffled<0, 2>(t690, t635);
        const P t782 = flipped<1, 0>(t781);
        const P t783 = t780 + t782;
        const P t784 = t780 - t782;
        const P t785 = shuffled<0, 2>(t650, t665);
        const P t786 = shuffled<0, 2>(t630, t645);
        const P t787 = flipped<1, 0>(t786);
        const P t788 = t785 + t787;
        const P t789 = t785 - t787;
        const P t790 = shuffled<0, 2>(t670, t625);
        const P t791 = shuffled<0, 2>(t620, t675);
        const P t792 = t790 + t791;
        const P t793 = t790 - t791;
        const P t794 = t774 + t778;
        const P t795 = t794 + t783;
        const P t796 = t795 + t788;
        const P t797 = t796 + t792;
        const P t798 = shuffled<0, 2>(t600, t695);
        const P t799 = t797 + t798;
        const P t800 = c[4] * t774;
        const P t801 = c[0] * t778;
        const P t802 = t800 + t801;
        const P t803 = c[3] * t783;
        const P t804 = t802 - t803;
        const P t805 = c[1] * t788;
        const P t806 = t804 - t805;
        const P t807 = c[2] * t792;
        const P t808 = t806 - t807;
        const P t809 = t808 + t798;
        const P t810 = c[6] * t779;
        const P t811 = c[8] * t784;
        const P t812 = c[5] * t793;
        const P t813 = shuffled<0, 3>(t811, t812);
        const P t814 = t810 + t813;
        const P t815 = c[7] * t789;
        const P t816 = P(c[9], -c[9]) * t775;
        const P t817 = shuffled<0, 3>(t815, t816);
        const P t818 = t814 + t817;
        const P t819 = shuffled<0, 3>(t812, t811);
        const P t820 = flipped<0, 1>(t819);
        const P t821 = t818 + t820;
        const P t822 = shuffled<0, 3>(t816, t815);
        const P t823 = t821 - t822;
        const P t824 = c[0] * t774;
        const P t825 = c[1] * t778;
        const P t826 = t824 - t825;
        const P t827 = c[2] * t783;
        const P t828 = t826 - t827;
        const P t829 = c[3] * t788;
        const P t830 = t828 - t829;
        const P t831 = c[4] * t792;
        const P t832 = t830 + t831;
        const P t833 = t832 + t798;
        const P t834 = c[7] * t779;
        const P t835 = P(-c[6], c[6]) * t775;
        const P t836 = c[5] * t784;
        const P t837 = shuffled<0, 3>(t835, t836);
        const P t838 = t834 + t837;
        const P t839 = P(c[8], -c[8]) * t789;
        const P t840 = shuffled<0, 3>(t836, t839);
        const P t841 = t838 - t840;
        const P t842 = shuffled<0, 3>(t839, t835);
        const P t843 = t841 - t842;
        const P t844 = c[9] * t793;
        const P t845 = t843 - t844;
        const P t846 = c[3] * t774;
        const P t847 = t798 - t846;
        const P t848 = c[2] * t778;
        const P t849 = t847 - t848;
        const P t850 = c[0] * t783;
        const P t851 = t849 + t850;
        const P t852 = c[4] * t788;
        const P t853 = t851 + t852;
        const P t854 = c[1] * t792;
        const P t855 = t853 - t854;
        const P t856 = c[9] * t789;
        const P t857 = c[6] * t784;
        const P t858 = shuffled<0, 3>(t856, t857);
        const P t859 = c[7] * t793;
        const P t860 = t858 + t859;
        const P t861 = c[8] * t775;
        const P t862 = t860 - t861;
        const P t863 = c[5] * t779;
        const P t864 = t862 - t863;
        const P t865 = shuffled<0, 3>(t857, t856);
        const P t866 = t864 - t865;
        const P t867 = c[1] * t774;
        const P t868 = t798 - t867;
        const P t869 = c[3] * t778;
        const P t870 = t868 - t869;
        const P t871 = c[4] * t783;
        const P t872 = t870 + t871;
        const P t873 = c[2] * t788;
        const P t874 = t872 - t873;
        const P t875 = c[0] * t792;
        const P t876 = t874 + t875;
        const P t877 = c[9] * t784;
        const P t878 = c[7] * t775;
        const P t879 = shuffled<0, 3>(t877, t878);
        const P t880 = c[5] * t789;
        const P t881 = c[8] * t779;
        const P t882 = shuffled<0, 3>(t880, t881);
        const P t883 = t879 + t882;
        const P t884 = shuffled<0, 3>(t878, t877);
        const P t885 = flipped<1, 0>(t884);
        const P t886 = t883 + t885;
        const P t887 = shuffled<0, 3>(t881, t880);
        const P t888 = flipped<1, 0>(t887);
        const P t889 = t886 + t888;
        const P t890 = P(-c[6], c[6]) * t793;
        const P t891 = t889 + t890;
        const P t892 = c[2] * t774;
        const P t893 = t798 - t892;
        const P t894 = c[4] * t778;
        const P t895 = t893 + t894;
        const P t896 = c[1] * t783;
        const P t897 = t895 - t896;
        const P t898 = c[0] * t788;
        const P t899 = t897 + t898;
        const P t900 = c[3] * t792;
        const P t901 = t899 - t900;
        const P t902 = c[7] * t784;
        const P t903 = c[6] * t789;
        const P t904 = shuffled<0, 3>(t902, t903);
        const P t905 = c[8] * t793;
        const P t906 = t904 + t905;
        const P t907 = c[5] * t775;
        const P t908 = t906 - t907;
        const P t909 = c[9] * t779;
        const P t910 = t908 - t909;
        const P t911 = shuffled<0, 3>(t903, t902);
        const P t912 = t910 - t911;
        const P t913 = shuffled<0, 3>(t705, t706);
        const P t914 = shuffled<0, 3>(t706, t705);
        // real block of 11
        const P t915 = t913 - t914;
        const P t916 = flipped<0, 1>(t701);
        const P t917 = t702 + t916;
        const P t918 = flipped<1, 0>(t713);
        const P t919 = t918 + t714;
        const P t920 = t720 - t722;
        const P t921 = shuffled<0, 3>(t727, t728);
        const P t922 = shuffled<0, 3>(t728, t727);
        const P t923 = t921 - t922;
        const P t924 = t707 + t704;
        const P t925 = shuffled<0, 3>(t924, t716);
        const P t926 = shuffled<0, 3>(t716, t924);
        const P t927 = t925 - t926;
        const P t928 = t927 + t723;
        const P t929 = flipped<0, 1>(t729);
        const P t930 = t928 + t929;
        const P t931 = shuffled<1, 3>(t600, t695);
        const P t932 = t930 - t931;
        const V t933 = part<1>(t931);
        const V t934 = part<1>(t708);
        // real block of 11
        const V t935 = t933 + t934;
        const V t936 = part<1>(t704);
        const V t937 = c[0] * t936;
        const V t938 = t935 + t937;
        const V t939 = part<1>(t925);
        const V t940 = c[3] * t939;
        const V t941 = t938 + t940;
        const V t942 = part<1>(t723);
        const V t943 = c[1] * t942;
        const V t944 = t941 + t943;
        const V t945 = part<1>(t729);
        const V t946 = c[2] * t945;
        const P t947 = joined(t732, t946);
        const P t948 = joined(t743, t944);
        // real block of 11
        const P t949 = t947 - t948;
        const P t950 = P(-c[9], c[9]) * t915;
        const P t951 = c[6] * t917;
        const P t952 = shuffled<0, 3>(t950, t951);
        const P t953 = c[5] * t923;
        const P t954 = t952 + t953;
        const P t955 = shuffled<0, 3>(t951, t950);
        const P t956 = t954 - t955;
        const P t957 = c[8] * t919;
        const P t958 = t956 - t957;
        const P t959 = c[7] * t920;
        const P t960 = t958 - t959;
        const V t961 = part<1>(t733);
        // real block of 11
        const V t962 = t933 + t961;
        const V t963 = c[1] * t936;
        const V t964 = t963 - t962;
        const V t965 = c[2] * t939;
        const V t966 = t964 - t965;
        const V t967 = c[3] * t942;
        const V t968 = t966 - t967;
        const P t969 = joined(t742, t968);
        const V t970 = c[4] * t945;
        const P t971 = joined(t743, t970);
        // real block of 11
        const P t972 = t969 - t971;
        const P t973 = c[8] * t920;
        const P t974 = c[7] * t917;
        const P t975 = shuffled<0, 3>(t973, t974);
        const P t976 = c[5] * t919;
        const P t977 = t975 + t976;
        const P t978 = P(-c[6], c[6]) * t915;
        const P t979 = shuffled<0, 3>(t978, t973);
        const P t980 = t977 + t979;
        const P t981 = shuffled<0, 3>(t974, t978);
        const P t982 = t980 - t981;
        const P t983 = c[9] * t923;
        const P t984 = t982 - t983;
        const V t985 = part<1>(t744);
        // real block of 11
        const V t986 = c[2] * t936;
        const V t987 = t985 + t986;
        const V t988 = c[0] * t939;
        const V t989 = t987 + t988;
        const V t990 = c[4] * t942;
        const V t991 = t989 + t990;
        const V t992 = c[1] * t945;
        const V t993 = t991 + t992;
        const P t994 = joined(t752, t993);
        // real block of 11
        const V t995 = c[1] * t730;
        const P t996 = joined(t995, t933);
        const P t997 = t994 - t996;
        const P t998 = c[6] * t919;
        const P t999 = c[5] * t917;
        const P t1000 = c[7] * t923;
        const P t1001 = shuffled<0, 3>(t999, t1000);
        const P t1002 = t998 + t1001;
        const P t1003 = P(c[8], -c[8]) * t915;
        const P t1004 = shuffled<0, 3>(t1000, t1003);
        const P t1005 = t1002 + t1004;
        const P t1006 = shuffled<0, 3>(t1003, t999);
        const P t1007 = t1005 - t1006;
        const P t1008 = c[9] * t920;
        const P t1009 = t1007 - t1008;
        const V t1010 = part<1>(t753);
        // real block of 11
        const V t1011 = c[3] * t936;
        const V t1012 = t1010 + t1011;
        const V t1013 = c[4] * t939;
        const V t1014 = t1012 + t1013;
        const V t1015 = c[2] * t942;
        const V t1016 = t1014 - t1015;
        const V t1017 = c[0] * t945;
        const V t1018 = t1016 - t1017;
        // real block of 11
        const V t1019 = c[0] * t730;
        const P t1020 = joined(t1019, t1018);
        const P t1021 = joined(t761, t933);
        const P t1022 = t1020 - t1021;
        const P t1023 = P(-c[7], c[7]) * t915;
        const P t1024 = c[8] * t917;
        const P t1025 = t1023 + t1024;
        const P t1026 = P(-c[9], c[9]) * t919;
        const P t1027 = t1025 + t1026;
        const P t1028 = P(-c[5], c[5]) * t920;
        const P t1029 = t1027 + t1028;
        const P t1030 = P(-c[6], c[6]) * t923;
        const P t1031 = t1029 + t1030;
        const V t1032 = part<1>(t762);
        // real block of 11
        const V t1033 = c[4] * t936;
        const V t1034 = t1032 - t1033;
        const V t1035 = c[1] * t939;
        const V t1036 = t1034 - t1035;
        const V t1037 = c[0] * t942;
        const V t1038 = t1036 + t1037;
        const V t1039 = c[3] * t945;
        const V t1040 = t1038 + t1039;
        const P t1041 = joined(t770, t1040);
        // real block of 11
        const V t1042 = c[3] * t730;
        const P t1043 = joined(t1042, t933);
        const P t1044 = t1041 - t1043;
        const P t1045 = c[6] * t920;
        const P t1046 = c[9] * t917;
        const P t1047 = c[8] * t923;
        const P t1048 = shuffled<0, 3>(t1046, t1047);
        const P t1049 = t1045 + t1048;
        const P t1050 = P(c[5], -c[5]) * t915;
        const P t1051 = shuffled<0, 3>(t1047, t1050);
        const P t1052 = t1049 + t1051;
        const P t1053 = shuffled<0, 3>(t1050, t1046);
        const P t1054 = t1052 - t1053;
        const P t1055 = c[7] * t919;
        const P t1056 = t1054 - t1055;
        const V t1057 = part<1>(t288);
        // spectrum block of 47
        const V t1058 = c[112] * t1057;
        const P t1059 = joined(t590, t1058);
        // spectrum block of 23, multiplier 2
        const P t1060 = P(-c[23], c[23]) * t799;
        const P t1061 = t1059 + t1060;
        const P t1062 = c[47] * t1056;
        const P t1063 = c[48] * t1044;
        const P t1064 = t1062 - t1063;
        const P t1065 = c[48] * t1056;
        const P t1066 = c[47] * t1044;
        const P t1067 = t1065 + t1066;
        const P t1068 = c[49] * t809;
        const P t1069 = c[50] * t823;
        const P t1070 = t1068 - t1069;
        const P t1071 = c[49] * t823;
        const P t1072 = c[50] * t809;
        const P t1073 = t1071 + t1072;
        const P t1074 = c[51] * t1031;
        const P t1075 = P(c[52], -c[52]) * t1022;
        const P t1076 = t1074 + t1075;
        const P t1077 = c[52] * t1031;
        const P t1078 = P(-c[51], c[51]) * t1022;
        const P t1079 = t1077 + t1078;
        const P t1080 = c[53] * t845;
        const P t1081 = c[54] * t833;
        const P t1082 = t1080 - t1081;
        const P t1083 = c[54] * t845;
        const P t1084 = c[53] * t833;
        const P t1085 = t1083 + t1084;
        const P t1086 = c[55] * t1009;
        const P t1087 = c[56] * t997;
        const P t1088 = t1086 - t1087;
        const P t1089 = c[56] * t1009;
        const P t1090 = c[55] * t997;
        const P t1091 = t1089 + t1090;
        const P t1092 = c[57] * t866;
        const P t1093 = c[58] * t855;
        const P t1094 = t1092 - t1093;
        const P t1095 = c[58] * t866;
        const P t1096 = c[57] * t855;
        const P t1097 = t1095 + t1096;
        const P t1098 = c[59] * t972;
        const P t1099 = c[60] * t984;
        const P t1100 = t1098 - t1099;
        const P t1101 = c[59] * t984;
        const P t1102 = c[60] * t972;
        const P t1103 = t1101 + t1102;
        const P t1104 = c[61] * t876;
        const P t1105 = P(-c[62], c[62]) * t891;
        const P t1106 = t1104 + t1105;
        const P t1107 = c[62] * t876;
        const P t1108 = P(c[61], -c[61]) * t891;
        const P t1109 = t1107 + t1108;
        const P t1110 = c[63] * t949;
        const P t1111 = c[64] * t960;
        const P t1112 = t1110 + t1111;
        const P t1113 = c[64] * t949;
        const P t1114 = c[63] * t960;
        const P t1115 = t1113 - t1114;
        const P t1116 = c[65] * t901;
        const P t1117 = c[66] * t912;
        const P t1118 = t1116 - t1117;
        const P t1119 = c[65] * t912;
        const P t1120 = c[66] * t901;
        const P t1121 = t1119 + t1120;
        // spectrum block of 11, multiplier 2
        const P t1122 = t1070 + t1082;
        const P t1123 = t1122 + t1094;
        const P t1124 = t1123 + t1106;
        const P t1125 = t1124 + t1118;
        const P t1126 = flipped<0, 1>(t1061);
        const P t1127 = t1125 + t1126;
        const P t1128 = c[4] * t1070;
        const P t1129 = c[0] * t1082;
        const P t1130 = t1128 + t1129;
        const P t1131 = c[3] * t1094;
        const P t1132 = t1130 - t1131;
        const P t1133 = c[1] * t1106;
        const P t1134 = t1132 - t1133;
        const P t1135 = c[2] * t1118;
        const P t1136 = t1134 - t1135;
        const P t1137 = t1136 + t1126;
        const P t1138 = c[9] * t1073;
        const P t1139 = c[6] * t1085;
        const P t1140 = t1138 - t1139;
        const P t1141 = c[8] * t1097;
        const P t1142 = t1140 - t1141;
        const P t1143 = c[7] * t1109;
        const P t1144 = t1142 + t1143;
        const P t1145 = c[5] * t1121;
        const P t1146 = t1144 + t1145;
        const P t1147 = t1137 - t1146;
        const P t1148 = t1137 + t1146;
        const P t1149 = c[0] * t1070;
        const P t1150 = c[1] * t1082;
        const P t1151 = t1149 - t1150;
        const P t1152 = c[2] * t1094;
        const P t1153 = t1151 - t1152;
        const P t1154 = c[3] * t1106;
        const P t1155 = t1153 - t1154;
        const P t1156 = c[4] * t1118;
        const P t1157 = t1155 + t1156;
        const P t1158 = t1157 + t1126;
        const P t1159 = c[6] * t1073;
        const P t1160 = c[7] * t1085;
        const P t1161 = t1159 - t1160;
        const P t1162 = c[5] * t1097;
        const P t1163 = t1161 + t1162;
        const P t1164 = c[8] * t1109;
        const P t1165 = t1163 - t1164;
        const P t1166 = c[9] * t1121;
        const P t1167 = t1165 - t1166;
        const P t1168 = t1158 - t1167;
        const P t1169 = t1158 + t1167;
        const P t1170 = P(-c[3], c[3]) * t1070;
        const P t1171 = t1061 + t1170;
        const P t1172 = P(-c[2], c[2]) * t1082;
        const P t1173 = t1171 + t1172;
        const P t1174 = c[0] * t1094;
        const P t1175 = flipped<0, 1>(t1173);
        const P t1176 = t1174 + t1175;
        const P t1177 = c[4] * t1106;
        const P t1178 = t1176 + t1177;
        const P t1179 = c[1] * t1118;
        const P t1180 = t1178 - t1179;
        const P t1181 = c[8] * t1073;
        const P t1182 = c[5] * t1085;
        const P t1183 = t1181 + t1182;
        const P t1184 = c[6] * t1097;
        const P t1185 = t1183 + t1184;
        const P t1186 = c[9] * t1109;
        const P t1187 = t1185 + t1186;
        const P t1188 = c[7] * t1121;
        const P t1189 = t1187 + t1188;
        const P t1190 = t1180 - t1189;
        const P t1191 = t1180 + t1189;
        const P t1192 = P(-c[1], c[1]) * t1070;
        const P t1193 = t1061 + t1192;
        const P t1194 = P(-c[3], c[3]) * t1082;
        const P t1195 = t1193 + t1194;
        const P t1196 = c[4] * t1094;
        const P t1197 = flipped<0, 1>(t1195);
        const P t1198 = t1196 + t1197;
        const P t1199 = c[2] * t1106;
        const P t1200 = t1198 - t1199;
        const P t1201 = c[0] * t1118;
        const P t1202 = t1200 + t1201;
        const P t1203 = c[7] * t1073;
        const P t1204 = c[8] * t1085;
        const P t1205 = t1203 + t1204;
        const P t1206 = c[9] * t1097;
        const P t1207 = t1205 - t1206;
        const P t1208 = c[5] * t1109;
        const P t1209 = t1207 + t1208;
        const P t1210 = c[6] * t1121;
        const P t1211 = t1209 - t1210;
        const P t1212 = t1202 - t1211;
        const P t1213 = t1202 + t1211;
        const P t1214 = P(-c[2], c[2]) * t1070;
        const P t1215 = t1061 + t1214;
        const P t1216 = c[4] * t1082;
        const P t1217 = flipped<0, 1>(t1215);
        const P t1218 = t1216 + t1217;
        const P t1219 = c[1] * t1094;
        const P t1220 = t1218 - t1219;
        const P t1221 = c[0] * t1106;
        const P t1222 = t1220 + t1221;
        const P t1223 = c[3] * t1118;
        const P t1224 = t1222 - t1223;
        const P t1225 = c[5] * t1073;
        const P t1226 = c[9] * t1085;
        const P t1227 = t1225 + t1226;
        const P t1228 = c[7] * t1097;
        const P t1229 = t1227 - t1228;
        const P t1230 = c[6] * t1109;
        const P t1231 = t1229 - t1230;
        const P t1232 = c[8] * t1121;
        const P t1233 = t1231 + t1232;
        const P t1234 = t1224 - t1233;
        const P t1235 = t1224 + t1233;
        // spectrum block of 11, multiplier 2
        const P t1236 = t1112 + t1100;
        const P t1237 = t1236 + t1088;
        const P t1238 = flipped<1, 0>(t1076);
        const P t1239 = t1237 + t1238;
        const P t1240 = t1239 + t1064;
        // spectrum block of 23, multiplier 2
        const P t1241 = c[46] * t932;
        // spectrum block of 11, multiplier 2
        const P t1242 = t1240 - t1241;
        const P t1243 = c[4] * t1112;
        const P t1244 = c[0] * t1100;
        const P t1245 = t1243 + t1244;
        const P t1246 = c[3] * t1088;
        const P t1247 = t1245 - t1246;
        const P t1248 = P(c[1], -c[1]) * t1076;
        const P t1249 = t1247 + t1248;
        const P t1250 = c[2] * t1064;
        const P t1251 = t1249 - t1250;
        const P t1252 = t1251 - t1241;
        const P t1253 = c[6] * t1103;
        const P t1254 = c[9] * t1115;
        const P t1255 = t1253 - t1254;
        const P t1256 = c[8] * t1091;
        const P t1257 = t1255 - t1256;
        const P t1258 = P(-c[7], c[7]) * t1079;
        const P t1259 = t1257 + t1258;
        const P t1260 = c[5] * t1067;
        const P t1261 = t1259 - t1260;
        const P t1262 = t1252 - t1261;
        const P t1263 = t1252 + t1261;
        const P t1264 = c[0] * t1112;
        const P t1265 = c[1] * t1100;
        const P t1266 = t1264 - t1265;
        const P t1267 = c[2] * t1088;
        const P t1268 = t1266 - t1267;
        const P t1269 = P(c[3], -c[3]) * t1076;
        const P t1270 = t1268 + t1269;
        const P t1271 = c[4] * t1064;
        const P t1272 = t1270 + t1271;
        const P t1273 = t1272 - t1241;
        const P t1274 = c[7] * t1103;
        const P t1275 = c[6] * t1115;
        const P t1276 = t1274 - t1275;
        const P t1277 = c[5] * t1091;
        const P t1278 = t1276 + t1277;
        const P t1279 = P(c[8], -c[8]) * t1079;
        const P t1280 = t1278 + t1279;
        const P t1281 = c[9] * t1067;
        const P t1282 = t1280 + t1281;
        const P t1283 = t1273 - t1282;
        const P t1284 = t1273 + t1282;
        const P t1285 = c[3] * t1112;
        const P t1286 = t1241 + t1285;
        const P t1287 = c[2] * t1100;
        const P t1288 = t1286 + t1287;
        const P t1289 = c[0] * t1088;
        const P t1290 = t1289 - t1288;
        const P t1291 = P(-c[4], c[4]) * t1076;
        const P t1292 = t1290 + t1291;
        const P t1293 = c[1] * t1064;
        const P t1294 = t1292 - t1293;
        const P t1295 = c[8] * t1115;
        const P t1296 = c[5] * t1103;
        const P t1297 = t1295 + t1296;
        const P t1298 = c[6] * t1091;
        const P t1299 = t1298 - t1297;
        const P t1300 = P(-c[9], c[9]) * t1079;
        const P t1301 = t1299 + t1300;
        const P t1302 = c[7] * t1067;
        const P t1303 = t1301 - t1302;
        const P t1304 = t1294 - t1303;
        const P t1305 = t1294 + t1303;
        const P t1306 = c[1] * t1112;
        const P t1307 = t1241 + t1306;
        const P t1308 = c[3] * t1100;
        const P t1309 = t1307 + t1308;
        const P t1310 = c[4] * t1088;
        const P t1311 = t1310 - t1309;
        const P t1312 = P(c[2], -c[2]) * t1076;
        const P t1313 = t1311 + t1312;
        const P t1314 = c[0] * t1064;
        const P t1315 = t1313 + t1314;
        const P t1316 = c[7] * t1115;
        const P t1317 = c[8] * t1103;
        const P t1318 = t1316 + t1317;
        const P t1319 = c[9] * t1091;
        const P t1320 = t1318 + t1319;
        const P t1321 = c[5] * t1079;
        const P t1322 = flipped<0, 1>(t1320);
        const P t1323 = t1321 + t1322;
        const P t1324 = flipped<1, 0>(t1323);
        const P t1325 = c[6] * t1067;
        const P t1326 = t1324 + t1325;
        const P t1327 = t1315 - t1326;
        const P t1328 = t1315 + t1326;
        const P t1329 = c[2] * t1112;
        const P t1330 = t1241 + t1329;
        const P t1331 = c[4] * t1100;
        const P t1332 = t1331 - t1330;
        const P t1333 = c[1] * t1088;
        const P t1334 = t1332 - t1333;
        const P t1335 = P(-c[0], c[0]) * t1076;
        const P t1336 = t1334 + t1335;
        const P t1337 = c[3] * t1064;
        const P t1338 = t1336 - t1337;
        const P t1339 = c[5] * t1115;
        const P t1340 = c[9] * t1103;
        const P t1341 = t1339 + t1340;
        const P t1342 = c[7] * t1091;
        const P t1343 = t1341 + t1342;
        const P t1344 = flipped<1, 0>(t1343);
        const P t1345 = c[6] * t1079;
        const P t1346 = t1344 + t1345;
        const P t1347 = P(-c[8], c[8]) * t1067;
        const P t1348 = t1346 + t1347;
        const P t1349 = flipped<1, 0>(t1348);
        const P t1350 = t1338 + t1349;
        const P t1351 = t1338 - t1349;
        // spectrum block of 2
        const P t1352 = t1127 + t1242;
        const P t1353 = t1127 - t1242;
        // spectrum block of 2
        const P t1354 = t1168 + t1283;
        const P t1355 = t1168 - t1283;
        // spectrum block of 2
        const P t1356 = t1212 + t1327;
        const P t1357 = t1212 - t1327;
        // spectrum block of 2
        const P t1358 = t1235 + t1351;
        const P t1359 = t1235 - t1351;
        // spectrum block of 2
        const P t1360 = t1191 + t1305;
        const P t1361 = t1191 - t1305;
        // spectrum block of 2
        const P t1362 = t1148 + t1263;
        const P t1363 = t1148 - t1263;
        // spectrum block of 2
        const P t1364 = t1147 + t1262;
        const P t1365 = t1147 - t1262;
        // spectrum block of 2
        const P t1366 = t1190 + t1304;
        const P t1367 = t1190 - t1304;
        // spectrum block of 2
        const P t1368 = t1234 + t1350;
        const P t1369 = t1234 - t1350;
        // spectrum block of 2
        const P t1370 = t1213 + t1328;
        const P t1371 = t1213 - t1328;
        // spectrum block of 2
        const P t1372 = t1169 + t1284;
        const P t1373 = t1169 - t1284;
        const P t1374 = flipped<0, 1>(t1059);
        // spectrum block of 23, multiplier 2
        const P t1375 = t799 + t1374;
        const P t1376 = shuffled<0, 2>(t1375, t1352);
        const P t1377 = shuffled<1, 3>(t1375, t1352);
        // spectrum block of 2
        const P t1378 = t1376 + t1377;
        io.out(1, 32, t1378);
        const P t1379 = t1376 - t1377;
        io.out(46, 15, t1379);
        const P t1380 = shuffled<0, 2>(t1372, t1358);
        const P t1381 = shuffled<1, 3>(t1372, t1358);
        // spectrum block of 2
        const P t1382 = t1380 + t1381;
        io.out(37, 9, t1382);
        const P t1383 = t1380 - t1381;
        io.out(10, 38, t1383);
        const P t1384 = shuffled<0, 2>(t1370, t1363);
        const P t1385 = shuffled<1, 3>(t1370, t1363);
        // spectrum block of 2
        const P t1386 = t1384 + t1385;
        io.out(6, 4, t1386);
        const P t1387 = t1384 - t1385;
        io.out(41, 43, t1387);
        const P t1388 = shuffled<0, 2>(t1356, t1367);
        const P t1389 = shuffled<1, 3>(t1356, t1367);
        // spectrum block of 2
        const P t1390 = t1388 + t1389;
        io.out(34, 7, t1390);
        const P t1391 = t1388 - t1389;
        io.out(13, 40, t1391);
        const P t1392 = shuffled<0, 2>(t1368, t1364);
        const P t1393 = shuffled<1, 3>(t1368, t1364);
        // spectrum block of 2
        const P t1394 = t1392 + t1393;
        io.out(36, 24, t1394);
        const P t1395 = t1392 - t1393;
        io.out(11, 23, t1395);
        const P t1396 = shuffled<0, 2>(t1361, t1355);
        const P t1397 = shuffled<1, 3>(t1361, t1355);
        // spectrum block of 2
        const P t1398 = t1396 + t1397;
        io.out(16, 42, t1398);
        const P t1399 = t1396 - t1397;
        io.out(31, 5, t1399);
        const P t1400 = shuffled<0, 2>(t1354, t1360);
        const P t1401 = shuffled<1, 3>(t1354, t1360);
        // spectrum block of 2
        const P t1402 = t1400 + t1401;
        io.out(28, 3, t1402);
        const P t1403 = t1400 - t1401;
        io.out(19, 44, t1403);
        const P t1404 = shuffled<0, 2>(t1365, t1369);
        const P t1405 = shuffled<1, 3>(t1365, t1369);
        // spectrum block of 2
        const P t1406 = t1404 + t1405;
        io.out(2, 17, t1406);
        const P t1407 = t1404 - t1405;
        io.out(45, 30, t1407);
        const P t1408 = shuffled<0, 2>(t1366, t1357);
        const P t1409 = shuffled<1, 3>(t1366, t1357);
        // spectrum block of 2
        const P t1410 = t1408 + t1409;
        io.out(27, 18, t1410);
        const P t1411 = t1408 - t1409;
        io.out(20, 29, t1411);
        const P t1412 = shuffled<0, 2>(t1362, t1371);
        const P t1413 = shuffled<1, 3>(t1362, t1371);
        // spectrum block of 2
        const P t1414 = t1412 + t1413;
        io.out(12, 8, t1414);
        const P t1415 = t1412 - t1413;
        io.out(35, 39, t1415);
        const P t1416 = shuffled<0, 2>(t1359, t1373);
        const P t1417 = shuffled<1, 3>(t1359, t1373);
        // spectrum block of 2
        const P t1418 = t1416 + t1417;
        io.out(21, 14, t1418);
        const P t1419 = t1416 - t1417;
        io.out(26, 33, t1419);
        const V t1420 = part<0>(t1353);
        const V t1421 = part<1>(t1353);
        // spectrum block of 2
        const V t1422 = t1420 + t1421;
        io.out(25, t1422);
        const V t1423 = t1420 - t1421;
        io.out(22, t1423);
        // spectrum block of 47
        const V t1424 = x0r + t588;
        io.out(0, t1424);
    }
};

}  // namespace zulg
