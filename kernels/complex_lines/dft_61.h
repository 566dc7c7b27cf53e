// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 61.
// Complex DFT of 61 points, Rader block; two lines of a stage to a register.
// 231 sums, 176 differences, 196 products of registers, which do the 2518 steps of the graph, those with
// `scale` included; 119 shuffles, 38 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<61> {
    static constexpr int steps = 2518;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 6/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.2578608473569129,  // c[6]: Q[4] of 61
        0.25061611613274265,  // c[7]: P[8] of 61
        0.035854723233524656,  // c[8]: -P[4] of 61
        0.07049354660050404,  // c[9]: Q[8] of 61
        0.1988310412655552,  // c[10]: Q[26] of 61
        0.25902765669579647,  // c[11]: Q[22] of 61
        0.1680594978185787,  // c[12]: -P[26] of 61
        0.02612376015167778,  // c[13]: -P[22] of 61
        0.24096799804842803,  // c[14]: P[11] of 61
        0.09920884237904212,  // c[15]: -Q[7] of 61
        0.09855050326766758,  // c[16]: -Q[11] of 61
        0.2406977012179139,  // c[17]: -P[7] of 61
        0.22194087820108896,  // c[18]: Q[19] of 61
        0.24362915936079071,  // c[19]: Q[23] of 61
        0.13608829619444565,  // c[20]: -P[19] of 61
        0.09177478132326014,  // c[21]: -P[23] of 61
        0.2380667501964918,  // c[22]: P[5] of 61
        0.09068761161102994,  // c[23]: -Q[9] of 61
        0.1053660297660444,  // c[24]: Q[5] of 61
        0.24403592948183833,  // c[25]: P[9] of 61
        0.1154342549547329,  // c[26]: -Q[25] of 61
        0.04709103298244708,  // c[27]: -Q[21] of 61
        0.23335104576758062,  // c[28]: -P[25] of 61
        0.256047285458026,  // c[29]: P[21] of 61
        0.005558934851007752,  // c[30]: -P[20] of 61
        0.1602815043062281,  // c[31]: P[6] of 61
        0.2602823006297202,  // c[32]: Q[20] of 61
        0.20515266792101527,  // c[33]: Q[6] of 61
        0.12042596856560207,  // c[34]: P[10] of 61
        0.2514915834033143,  // c[35]: P[24] of 61
        0.23081456598926853,  // c[36]: Q[10] of 61
        0.0673035010610264,  // c[37]: -Q[24] of 61
        0.20457446421174474,  // c[38]: P[2] of 61
        0.047810579406671994,  // c[39]: Q[13] of 61
        0.16101883855703142,  // c[40]: Q[2] of 61
        0.25591390402746017,  // c[41]: -P[13] of 61
        0.21139251213699267,  // c[42]: P[28] of 61
        0.20961095261841867,  // c[43]: P[17] of 61
        0.15195717683014903,  // c[44]: -Q[28] of 61
        0.15440539602027134,  // c[45]: -Q[17] of 61
        0.11042531820311542,  // c[46]: -P[15] of 61
        0.23576264945389142,  // c[47]: Q[15] of 61
        0.17085954303793666,  // c[48]: Q[12] of 61
        0.2503173720628796,  // c[49]: P[16] of 61
        0.19643012582250524,  // c[50]: -P[12] of 61
        0.07154712447968609,  // c[51]: Q[16] of 61
        0.12208153447883048,  // c[52]: P[18] of 61
        0.035146745480687275,  // c[53]: Q[14] of 61
        0.22994320324173947,  // c[54]: -Q[18] of 61
        0.25795829907156226,  // c[55]: -P[14] of 61
        0.25817133658934166,  // c[56]: -P[27] of 61
        0.20918808865965802,  // c[57]: P[1] of 61
        0.0335460689418391,  // c[58]: Q[27] of 61
        0.15497780918795065,  // c[59]: Q[1] of 61
        0.23892325195327072,  // c[60]: P[3] of 61
        0.2314253610640195,  // c[61]: -Q[29] of 61
        0.10340917490170637,  // c[62]: -Q[3] of 61
        0.1192479770652986,  // c[63]: -P[29] of 61
        0.016666666666666666,  // c[64]: 1/60
        0.13017082793177756,  // c[65]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x57_17 = io.pairs(57, 17);
        const Q x56_6 = io.pairs(56, 6);
        // real block of 3, multiplier 2
        const Q t0 = x57_17 + x56_6;
        const Q t1 = x57_17 - x56_6;
        const Q x9_38 = io.pairs(9, 38);
        const Q t2 = t0 + x9_38;
        const Q x12_10 = io.pairs(12, 10);
        const Q x15_43 = io.pairs(15, 43);
        // real block of 3, multiplier 2
        const Q t3 = x12_10 + x15_43;
        const Q t4 = x12_10 - x15_43;
        const Q x34_8 = io.pairs(34, 8);
        const Q t5 = t3 + x34_8;
        const Q x47_29 = io.pairs(47, 29);
        const Q x13_21 = io.pairs(13, 21);
        // real block of 3, multiplier 2
        const Q t6 = x47_29 + x13_21;
        const Q t7 = x47_29 - x13_21;
        const Q x25_31 = io.pairs(25, 31);
        const Q x16_54 = io.pairs(16, 54);
        // real block of 3, multiplier 2
        const Q t8 = x25_31 + x16_54;
        const Q t9 = x25_31 - x16_54;
        const Q x20_37 = io.pairs(20, 37);
        const Q t10 = t8 + x20_37;
        const Q x42_35 = io.pairs(42, 35);
        const Q x22_59 = io.pairs(22, 59);
        // real block of 3, multiplier 2
        const Q t11 = x42_35 + x22_59;
        const Q t12 = x42_35 - x22_59;
        const Q x58_28 = io.pairs(58, 28);
        const Q t13 = t11 + x58_28;
        const Q x1_11 = io.pairs(1, 11);
        // real block of 3, multiplier 2
        const Q t14 = t6 + x1_11;
        const Q t15 = c[4] * t6;
        const Q t16 = x1_11 - t15;
        // real block of 3, multiplier 2
        const Q t17 = c[5] * t1;
        // real block of 3, multiplier 2
        const Q t18 = c[5] * t4;
        // complex block of 5, multiplier 2
        const Q t19 = t17 + t18;
        // real block of 3, multiplier 2
        const Q t20 = c[5] * t12;
        // real block of 3, multiplier 2
        const Q t21 = c[5] * t9;
        // complex block of 5, multiplier 2
        const Q t22 = t20 + t21;
        const Q t23 = t19 + t22;
        const Q t24 = c[0] * t19;
        const Q t25 = c[1] * t22;
        const Q t26 = t24 - t25;
        // real block of 3, multiplier 2
        const Q t27 = c[5] * t7;
        // complex block of 5, multiplier 2
        const Q t28 = c[1] * t19;
        const Q t29 = t27 - t28;
        // real block of 3, multiplier 2
        const Q t30 = c[4] * t0;
        const Q t31 = x9_38 - t30;
        // real block of 3, multiplier 2
        const Q t32 = c[4] * t3;
        const Q t33 = x34_8 - t32;
        // complex block of 5, multiplier 2
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        // real block of 3, multiplier 2
        const Q t36 = c[4] * t8;
        const Q t37 = x20_37 - t36;
        // real block of 3, multiplier 2
        const Q t38 = c[4] * t11;
        const Q t39 = x58_28 - t38;
        // complex block of 5, multiplier 2
        const Q t40 = t39 + t37;
        const Q t41 = t39 - t37;
        // real block of 5, multiplier 2
        const Q t42 = t2 + t5;
        const Q t43 = t13 + t10;
        const Q t44 = t42 + t43;
        const Q t45 = t2 - t5;
        const Q t46 = t13 - t10;
        // complex block of 5, multiplier 2
        const Q t47 = t17 - t18;
        const Q t48 = t20 - t21;
        const Q x19_26 = io.pairs(19, 26);
        const Q x39_2 = io.pairs(39, 2);
        // real block of 3, multiplier 2
        const Q t49 = x19_26 + x39_2;
        const Q t50 = x19_26 - x39_2;
        const Q x3_33 = io.pairs(3, 33);
        const Q t51 = t49 + x3_33;
        const Q x4_44 = io.pairs(4, 44);
        const Q x5_55 = io.pairs(5, 55);
        // real block of 3, multiplier 2
        const Q t52 = x4_44 + x5_55;
        const Q t53 = x4_44 - x5_55;
        const Q x52_23 = io.pairs(52, 23);
        const Q t54 = t52 + x52_23;
        const Q x36_30 = io.pairs(36, 30);
        const Q x45_7 = io.pairs(45, 7);
        // real block of 3, multiplier 2
        const Q t55 = x36_30 + x45_7;
        const Q t56 = x36_30 - x45_7;
        const Q x41_24 = io.pairs(41, 24);
        const Q t57 = t55 + x41_24;
        const Q x14_32 = io.pairs(14, 32);
        const Q x48_40 = io.pairs(48, 40);
        // real block of 3, multiplier 2
        const Q t58 = x14_32 + x48_40;
        const Q t59 = x14_32 - x48_40;
        const Q x49_51 = io.pairs(49, 51);
        const Q x46_18 = io.pairs(46, 18);
        // real block of 3, multiplier 2
        const Q t60 = x49_51 + x46_18;
        const Q t61 = x49_51 - x46_18;
        const Q x27_53 = io.pairs(27, 53);
        const Q t62 = t60 + x27_53;
        const Q x60_50 = io.pairs(60, 50);
        // real block of 3, multiplier 2
        const Q t63 = t58 + x60_50;
        const Q t64 = c[4] * t58;
        const Q t65 = x60_50 - t64;
        // real block of 3, multiplier 2
        const Q t66 = c[5] * t53;
        // real block of 3, multiplier 2
        const Q t67 = c[5] * t61;
        // complex block of 5, multiplier 2
        const Q t68 = t66 + t67;
        // real block of 3, multiplier 2
        const Q t69 = c[5] * t50;
        // real block of 3, multiplier 2
        const Q t70 = c[5] * t56;
        // complex block of 5, multiplier 2
        const Q t71 = t69 + t70;
        const Q t72 = t68 + t71;
        const Q t73 = c[0] * t68;
        const Q t74 = c[1] * t71;
        const Q t75 = t73 - t74;
        // real block of 3, multiplier 2
        const Q t76 = c[5] * t59;
        // complex block of 5, multiplier 2
        const Q t77 = c[1] * t68;
        const Q t78 = t76 - t77;
        // real block of 3, multiplier 2
        const Q t79 = c[4] * t52;
        const Q t80 = x52_23 - t79;
        // real block of 3, multiplier 2
        const Q t81 = c[4] * t60;
        const Q t82 = x27_53 - t81;
        // complex block of 5, multiplier 2
        const Q t83 = t80 + t82;
        const Q t84 = t80 - t82;
        // real block of 3, multiplier 2
        const Q t85 = c[4] * t55;
        const Q t86 = x41_24 - t85;
        // real block of 3, multiplier 2
        const Q t87 = c[4] * t49;
        const Q t88 = x3_33 - t87;
        // complex block of 5, multiplier 2
        const Q t89 = t88 + t86;
        const Q t90 = t88 - t86;
        // real block of 5, multiplier 2
        const Q t91 = t54 + t62;
        const Q t92 = t51 + t57;
        const Q t93 = t91 + t92;
        const Q t94 = t54 - t62;
        const Q t95 = t51 - t57;
        // complex block of 5, multiplier 2
        const Q t96 = t66 - t67;
        const Q t97 = t69 - t70;
        // real block of 5, multiplier 2
        const Q t98 = t44 + t14;
        // real block of 5, multiplier 2
        const Q t99 = t93 + t63;
        // real block of 2
        const Q t100 = t98 + t99;
        const Q t101 = t98 - t99;
        const P t102 = part<0>(t100);
        const P t103 = part<1>(t100);
        // real block of 2
        const P t104 = t102 + t103;
        const P t105 = t102 - t103;
        // real block of 5, multiplier 2
        const Q t106 = c[1] * t42;
        const Q t107 = t14 - t106;
        const Q t108 = c[0] * t43;
        const Q t109 = t107 + t108;
        const Q t110 = c[2] * t45;
        const Q t111 = c[3] * t46;
        const Q t112 = t110 + t111;
        // complex block of 5, multiplier 2
        const Q t113 = t26 + t27;
        const Q t114 = c[3] * t35;
        const Q t115 = c[2] * t41;
        const Q t116 = t114 - t115;
        const Q t117 = t113 - t116;
        const Q t118 = t113 + t116;
        const Q t119 = c[0] * t22;
        const Q t120 = t29 + t119;
        const Q t121 = c[2] * t35;
        const Q t122 = c[3] * t41;
        const Q t123 = t121 + t122;
        const Q t124 = t120 - t123;
        const Q t125 = t120 + t123;
        // real block of 5, multiplier 2
        const Q t126 = c[2] * t94;
        const Q t127 = c[3] * t95;
        const Q t128 = t126 + t127;
        // complex block of 5, multiplier 2
        const Q t129 = t75 + t76;
        const Q t130 = c[3] * t84;
        const Q t131 = c[2] * t90;
        const Q t132 = t130 - t131;
        const Q t133 = t129 - t132;
        const Q t134 = t129 + t132;
        const Q t135 = c[0] * t71;
        const Q t136 = t78 + t135;
        const Q t137 = c[2] * t84;
        const Q t138 = c[3] * t90;
        const Q t139 = t137 + t138;
        const Q t140 = t136 - t139;
        const Q t141 = t136 + t139;
        const Q t142 = shuffled<0, 1, 4, 5>(t117, t125);
        const Q t143 = shuffled<0, 1, 4, 5>(t133, t141);
        // complex block of 2
        const Q t144 = t142 + t143;
        const Q t145 = shuffled<0, 1, 6, 7>(t143, t142);
        const Q t146 = shuffled<0, 1, 6, 7>(t142, t143);
        const Q t147 = t145 - t146;
        const Q t148 = shuffled<2, 3, 6, 7>(t117, t125);
        const Q t149 = shuffled<2, 3, 6, 7>(t133, t141);
        // complex block of 2
        const Q t150 = t148 + t149;
        const Q t151 = shuffled<0, 1, 6, 7>(t149, t148);
        const Q t152 = shuffled<0, 1, 6, 7>(t148, t149);
        const Q t153 = t151 - t152;
        const Q t154 = shuffled<0, 1, 4, 5>(t112, t118);
        const Q t155 = shuffled<0, 1, 4, 5>(t128, t134);
        // complex block of 2
        const Q t156 = t154 + t155;
        const Q t157 = t155 - t154;
        const Q t158 = shuffled<2, 3, 6, 7>(t112, t118);
        const Q t159 = shuffled<2, 3, 6, 7>(t128, t134);
        // complex block of 2
        const Q t160 = t158 + t159;
        const Q t161 = t159 - t158;
        // complex block of 2
        const Q t162 = t124 + t140;
        const Q t163 = t140 - t124;
        // complex block of 5, multiplier 2
        const Q t164 = c[0] * t34;
        const Q t165 = c[1] * t40;
        const Q t166 = t164 - t165;
        const Q t167 = t166 + t16;
        const Q t168 = c[3] * t47;
        const Q t169 = c[2] * t48;
        const Q t170 = t168 - t169;
        const Q t171 = t167 + t170;
        const Q t172 = t167 - t170;
        const Q t173 = c[1] * t34;
        const Q t174 = t16 - t173;
        const Q t175 = c[0] * t40;
        const Q t176 = t174 + t175;
        const Q t177 = c[2] * t47;
        const Q t178 = c[3] * t48;
        const Q t179 = t177 + t178;
        const Q t180 = t176 + t179;
        const Q t181 = t176 - t179;
        // real block of 5, multiplier 2
        const Q t182 = c[1] * t91;
        const Q t183 = t63 - t182;
        const Q t184 = c[0] * t92;
        const Q t185 = t183 + t184;
        // complex block of 5, multiplier 2
        const Q t186 = c[0] * t83;
        const Q t187 = c[1] * t89;
        const Q t188 = t186 - t187;
        const Q t189 = t188 + t65;
        const Q t190 = c[3] * t96;
        const Q t191 = c[2] * t97;
        const Q t192 = t190 - t191;
        const Q t193 = t189 + t192;
        const Q t194 = t189 - t192;
        const Q t195 = c[1] * t83;
        const Q t196 = t65 - t195;
        const Q t197 = c[0] * t89;
        const Q t198 = t196 + t197;
        const Q t199 = c[2] * t96;
        const Q t200 = c[3] * t97;
        const Q t201 = t199 + t200;
        const Q t202 = t198 + t201;
        const Q t203 = t198 - t201;
        const Q t204 = shuffled<0, 1, 4, 5>(t171, t181);
        const Q t205 = shuffled<0, 1, 4, 5>(t193, t203);
        // complex block of 2
        const Q t206 = t204 + t205;
        const Q t207 = shuffled<2, 3, 6, 7>(t171, t181);
        const Q t208 = shuffled<2, 3, 6, 7>(t193, t203);
        // complex block of 2
        const Q t209 = t207 + t208;
        // complex block of 2
        const Q t210 = t206 + t209;
        const Q t211 = t206 - t209;
        const Q t212 = t144 + t150;
        // complex block of 2
        const Q t213 = t204 - t205;
        // complex block of 2
        const Q t214 = t213 - t153;
        const Q t215 = t213 + t153;
        // complex block of 2
        const Q t216 = t207 - t208;
        // complex block of 2
        const Q t217 = t147 + t216;
        const Q t218 = t147 - t216;
        const Q t219 = shuffled<0, 1, 6, 7>(t150, t144);
        const Q t220 = shuffled<0, 1, 6, 7>(t144, t150);
        // complex block of 2
        const Q t221 = t219 - t220;
        const Q t222 = shuffled<0, 1, 4, 5>(t109, t172);
        const Q t223 = shuffled<0, 1, 4, 5>(t185, t194);
        // complex block of 2
        const Q t224 = t222 + t223;
        const Q t225 = shuffled<2, 3, 6, 7>(t109, t172);
        const Q t226 = shuffled<2, 3, 6, 7>(t185, t194);
        // complex block of 2
        const Q t227 = t225 + t226;
        // complex block of 2
        const Q t228 = t224 + t227;
        const Q t229 = t224 - t227;
        const Q t230 = t156 + t160;
        const Q t231 = t160 - t156;
        // complex block of 2
        const Q t232 = t222 - t223;
        // complex block of 2
        const Q t233 = t232 - t161;
        const Q t234 = t232 + t161;
        // complex block of 2
        const Q t235 = t225 - t226;
        // complex block of 2
        const Q t236 = t157 + t235;
        const Q t237 = t157 - t235;
        // complex block of 2
        const Q t238 = t180 + t202;
        const Q t239 = t180 - t202;
        const Q t240 = shuffled<0, 1, 4, 5>(t238, t239);
        const Q t241 = shuffled<2, 3, 6, 7>(t238, t163);
        const Q t242 = flipped<0, 0, 1, 1>(t241);
        // complex block of 2
        const Q t243 = t240 + t242;
        const Q t244 = shuffled<0, 1, 4, 5>(t162, t163);
        const Q t245 = shuffled<2, 3, 6, 7>(t162, t239);
        const Q t246 = t244 + t245;
        const Q t247 = t240 - t242;
        const Q t248 = shuffled<0, 1, 6, 7>(t245, t244);
        const Q t249 = shuffled<0, 1, 6, 7>(t244, t245);
        const Q t250 = t248 - t249;
        // real block of 5, multiplier 2
        const Q t251 = c[0] * t42;
        const Q t252 = c[1] * t43;
        const Q t253 = t251 - t252;
        const Q t254 = t253 + t14;
        // complex block of 5, multiplier 2
        const Q t255 = t34 + t40;
        const Q t256 = t255 + t16;
        // real block of 5, multiplier 2
        const Q t257 = c[0] * t91;
        const Q t258 = c[1] * t92;
        const Q t259 = t257 - t258;
        const Q t260 = t259 + t63;
        // complex block of 5, multiplier 2
        const Q t261 = t83 + t89;
        const Q t262 = t261 + t65;
        const Q t263 = shuffled<0, 1, 4, 5>(t256, t254);
        const Q t264 = shuffled<0, 1, 4, 5>(t262, t260);
        // complex block of 2
        const Q t265 = t263 + t264;
        const Q t266 = t263 - t264;
        const Q t267 = shuffled<2, 3, 6, 7>(t256, t254);
        const Q t268 = shuffled<2, 3, 6, 7>(t262, t260);
        // complex block of 2
        const Q t269 = t267 + t268;
        const Q t270 = t267 - t268;
        // real block of 5, multiplier 2
        const Q t271 = c[3] * t45;
        const Q t272 = c[2] * t46;
        const Q t273 = t271 - t272;
        // complex block of 5, multiplier 2
        const Q t274 = t23 + t27;
        // real block of 5, multiplier 2
        const Q t275 = c[3] * t94;
        const Q t276 = c[2] * t95;
        const Q t277 = t275 - t276;
        // complex block of 5, multiplier 2
        const Q t278 = t72 + t76;
        const Q t279 = shuffled<0, 1, 4, 5>(t274, t273);
        const Q t280 = shuffled<0, 1, 4, 5>(t278, t277);
        // complex block of 2
        const Q t281 = t279 + t280;
        const Q t282 = t279 - t280;
        const Q t283 = shuffled<2, 3, 6, 7>(t274, t273);
        const Q t284 = shuffled<2, 3, 6, 7>(t278, t277);
        // complex block of 2
        const Q t285 = t283 + t284;
        const Q t286 = t283 - t284;
        // complex block of 2
        const Q t287 = t265 + t269;
        const Q t288 = t265 - t269;
        const Q t289 = t281 + t285;
        const Q t290 = t281 - t285;
        // complex block of 2
        const Q t291 = t266 - t286;
        const Q t292 = t282 + t270;
        const Q t293 = t266 + t286;
        const Q t294 = t282 - t270;
        const P x0 = io.pair(0);
        // complex block of 61
        const P t295 = x0 + t104;
        io.pair(0, t295);
        const P t296 = c[64] * t104;
        const P t297 = x0 - t296;
        const P t298 = c[65] * t105;
        // spectrum block of 2
        const P t299 = t297 + t298;
        const P t300 = t297 - t298;
        const Q t301 = shuffled<0, 1, 6, 7>(t212, t210);
        // complex block of 61
        const Q t302 = Q(c[6], c[6], c[7], c[7]) * t301;
        const Q t303 = shuffled<0, 1, 6, 7>(t210, t212);
        const Q t304 = Q(c[8], c[8], c[9], c[9]) * t303;
        const Q t305 = t302 - t304;
        const Q t306 = Q(c[10], c[10], c[11], c[11]) * t221;
        const Q t307 = Q(c[12], c[12], c[13], c[13]) * t211;
        const Q t308 = t306 - t307;
        // complex block of 2
        const Q t309 = t305 + t308;
        const Q t310 = t305 - t308;
        const Q t311 = shuffled<0, 1, 6, 7>(t218, t215);
        const Q t312 = shuffled<1, 0, 3, 2>(t311);
        // complex block of 61
        const Q t313 = Q(c[14], -c[14], c[15], c[15]) * t312;
        const Q t314 = shuffled<0, 1, 6, 7>(t215, t218);
        const Q t315 = shuffled<1, 0, 3, 2>(t314);
        const Q t316 = Q(-c[16], c[16], c[17], c[17]) * t315;
        const Q t317 = t313 + t316;
        const Q t318 = shuffled<1, 0, 3, 2>(t214);
        const Q t319 = Q(c[18], c[18], c[19], c[19]) * t318;
        const Q t320 = shuffled<1, 0, 3, 2>(t217);
        const Q t321 = Q(c[20], c[20], c[21], c[21]) * t320;
        const Q t322 = t319 + t321;
        const Q t323 = flipped<0, 0, 1, 0>(t317);
        const Q t324 = flipped<0, 1, 0, 1>(t322);
        // complex block of 2
        const Q t325 = t323 + t324;
        const Q t326 = shuffled<1, 0, 3, 2>(t215);
        // complex block of 61
        const Q t327 = Q(c[14], c[14], -c[17], c[17]) * t326;
        const Q t328 = shuffled<1, 0, 3, 2>(t218);
        const Q t329 = Q(c[16], c[16], c[15], -c[15]) * t328;
        const Q t330 = t327 + t329;
        const Q t331 = Q(-c[20], c[20], -c[21], c[21]) * t318;
        const Q t332 = Q(c[18], -c[18], c[19], -c[19]) * t320;
        const Q t333 = t331 + t332;
        const Q t334 = flipped<0, 1, 0, 0>(t330);
        // complex block of 2
        const Q t335 = t333 + t334;
        const Q t336 = t333 - t334;
        const Q t337 = flipped<1, 0, 1, 0>(t323);
        const Q t338 = t322 + t337;
        // complex block of 2
        const Q t339 = t309 + t325;
        const Q t340 = t309 - t325;
        // complex block of 2
        const Q t341 = t310 + t335;
        const Q t342 = t310 - t335;
        // complex block of 61
        const Q t343 = Q(c[8], c[8], c[7], c[7]) * t212;
        const Q t344 = Q(c[6], c[6], c[9], c[9]) * t210;
        const Q t345 = t343 + t344;
        const Q t346 = Q(c[12], c[12], c[13], c[13]) * t221;
        const Q t347 = Q(c[10], c[10], c[11], c[11]) * t211;
        const Q t348 = t346 + t347;
        // complex block of 2
        const Q t349 = t345 - t348;
        const Q t350 = t345 + t348;
        const Q t351 = shuffled<0, 1, 6, 7>(t293, t294);
        const Q t352 = shuffled<1, 0, 3, 2>(t351);
        // complex block of 61
        const Q t353 = Q(c[22], c[22], -c[23], c[23]) * t352;
        const Q t354 = shuffled<0, 1, 6, 7>(t294, t293);
        const Q t355 = shuffled<1, 0, 3, 2>(t354);
        const Q t356 = Q(c[24], c[24], c[25], -c[25]) * t355;
        const Q t357 = t353 + t356;
        const Q t358 = shuffled<1, 0, 3, 2>(t292);
        const Q t359 = Q(c[26], -c[26], c[27], c[27]) * t358;
        const Q t360 = shuffled<1, 0, 3, 2>(t291);
        const Q t361 = Q(-c[28], c[28], c[29], c[29]) * t360;
        const Q t362 = t359 + t361;
        const Q t363 = flipped<0, 1, 0, 0>(t362);
        const Q t364 = flipped<0, 0, 0, 1>(t357);
        // complex block of 2
        const Q t365 = t363 + t364;
        const Q t366 = shuffled<0, 1, 6, 7>(t287, t288);
        // complex block of 61
        const Q t367 = Q(c[30], c[30], c[31], c[31]) * t366;
        const Q t368 = shuffled<0, 1, 6, 7>(t289, t290);
        const Q t369 = Q(c[32], c[32], c[33], c[33]) * t368;
        const Q t370 = t367 + t369;
        const Q t371 = shuffled<0, 1, 6, 7>(t288, t287);
        const Q t372 = Q(c[34], c[34], c[35], c[35]) * t371;
        const Q t373 = shuffled<0, 1, 6, 7>(t290, t289);
        const Q t374 = Q(c[36], c[36], c[37], c[37]) * t373;
        const Q t375 = t372 + t374;
        const Q t376 = flipped<1, 1, 0, 0>(t370);
        // complex block of 2
        const Q t377 = t375 + t376;
        const Q t378 = t375 - t376;
        const Q t379 = shuffled<0, 1, 6, 7>(t355, t360);
        // complex block of 61
        const Q t380 = Q(-c[22], c[22], -c[27], c[27]) * t379;
        const Q t381 = shuffled<0, 1, 6, 7>(t352, t358);
        const Q t382 = Q(c[24], -c[24], c[29], -c[29]) * t381;
        const Q t383 = t380 + t382;
        const Q t384 = shuffled<0, 1, 6, 7>(t360, t355);
        const Q t385 = Q(c[26], c[26], c[23], c[23]) * t384;
        const Q t386 = shuffled<0, 1, 6, 7>(t358, t352);
        const Q t387 = Q(c[28], c[28], c[25], c[25]) * t386;
        const Q t388 = t385 + t387;
        const Q t389 = flipped<1, 0, 1, 0>(t388);
        // complex block of 2
        const Q t390 = t383 + t389;
        const Q t391 = flipped<1, 1, 1, 0>(t363);
        const Q t392 = t391 + t357;
        const Q t393 = flipped<0, 1, 0, 0>(t383);
        const Q t394 = flipped<1, 0, 1, 1>(t389);
        const Q t395 = t393 + t394;
        // complex block of 2
        const Q t396 = t377 + t390;
        const Q t397 = t377 - t390;
        const Q t398 = flipped<0, 1, 0, 0>(t378);
        const Q t399 = flipped<0, 0, 1, 0>(t365);
        // complex block of 2
        const Q t400 = t398 + t399;
        const Q t401 = flipped<1, 1, 0, 0>(t398);
        const Q t402 = flipped<0, 0, 1, 1>(t399);
        const Q t403 = t401 + t402;
        // complex block of 61
        const Q t404 = Q(c[36], c[36], c[33], c[33]) * t288;
        const Q t405 = Q(c[34], c[34], c[31], c[31]) * t290;
        const Q t406 = t404 - t405;
        const Q t407 = shuffled<0, 1, 6, 7>(t366, t373);
        const Q t408 = Q(c[32], c[32], c[35], c[35]) * t407;
        const Q t409 = shuffled<0, 1, 6, 7>(t368, t371);
        const Q t410 = Q(c[30], c[30], c[37], c[37]) * t409;
        const Q t411 = t408 - t410;
        // complex block of 2
        const Q t412 = t411 - t406;
        const Q t413 = t411 + t406;
        const Q t414 = shuffled<0, 5, 3, 6>(t247, t247);
        // complex block of 61
        const Q t415 = Q(c[38], c[38], c[39], c[39]) * t414;
        const Q t416 = shuffled<0, 5, 3, 6>(t250, t250);
        const Q t417 = Q(c[40], c[40], c[41], c[41]) * t416;
        const Q t418 = t415 + t417;
        const Q t419 = shuffled<1, 0, 3, 2>(t246);
        const Q t420 = shuffled<0, 1, 6, 7>(t243, t419);
        const Q t421 = Q(c[42], c[42], c[43], -c[43]) * t420;
        const Q t422 = shuffled<1, 0, 3, 2>(t243);
        const Q t423 = shuffled<0, 1, 6, 7>(t246, t422);
        const Q t424 = Q(c[44], c[44], c[45], -c[45]) * t423;
        const Q t425 = t421 - t424;
        const Q t426 = flipped<0, 0, 0, 1>(t418);
        // complex block of 2
        const Q t427 = t425 + t426;
        const Q t428 = t425 - t426;
        const Q t429 = shuffled<0, 1, 6, 7>(t414, t420);
        // complex block of 61
        const Q t430 = Q(c[40], c[40], c[45], c[45]) * t429;
        const Q t431 = shuffled<0, 1, 6, 7>(t416, t423);
        const Q t432 = Q(-c[38], -c[38], c[43], c[43]) * t431;
        const Q t433 = t430 + t432;
        const Q t434 = shuffled<0, 1, 6, 7>(t420, t414);
        const Q t435 = Q(c[44], c[44], -c[41], c[41]) * t434;
        const Q t436 = shuffled<0, 1, 6, 7>(t423, t416);
        const Q t437 = Q(c[42], c[42], c[39], -c[39]) * t436;
        const Q t438 = t435 + t437;
        const Q t439 = flipped<0, 0, 1, 0>(t433);
        // complex block of 2
        const Q t440 = t439 + t438;
        const Q t441 = flipped<0, 0, 1, 0>(t438);
        const Q t442 = t433 - t441;
        const Q t443 = shuffled<2, 3, 4, 5>(t440, t442);
        const Q t444 = shuffled<0, 1, 6, 7>(t440, t428);
        // complex block of 2
        const Q t445 = t443 - t444;
        const Q t446 = shuffled<0, 1, 4, 5>(t427, t428);
        const Q t447 = shuffled<2, 3, 6, 7>(t427, t442);
        const Q t448 = flipped<0, 0, 1, 0>(t447);
        const Q t449 = t446 + t448;
        const Q t450 = t443 + t444;
        const Q t451 = t446 - t448;
        const Q t452 = shuffled<2, 3, 0, 1>(t101);
        const Q t453 = shuffled<1, 0, 3, 2>(t452);
        // complex block of 61
        const Q t454 = Q(c[46], c[46], -c[46], c[46]) * t453;
        const Q t455 = shuffled<1, 0, 3, 2>(t101);
        const Q t456 = Q(c[47], c[47], c[47], -c[47]) * t455;
        const Q t457 = t454 + t456;
        const Q t458 = shuffled<0, 1, 6, 7>(t230, t228);
        const Q t459 = Q(c[48], c[48], c[49], c[49]) * t458;
        const Q t460 = shuffled<0, 1, 6, 7>(t228, t230);
        const Q t461 = Q(-c[50], -c[50], c[51], c[51]) * t460;
        const Q t462 = t459 + t461;
        const Q t463 = shuffled<0, 1, 6, 7>(t229, t231);
        const Q t464 = Q(c[52], c[52], c[53], c[53]) * t463;
        const Q t465 = shuffled<0, 1, 6, 7>(t231, t229);
        const Q t466 = Q(c[54], c[54], c[55], c[55]) * t465;
        const Q t467 = t464 - t466;
        // complex block of 2
        const Q t468 = t462 + t467;
        const Q t469 = t462 - t467;
        const Q t470 = shuffled<0, 1, 6, 7>(t236, t237);
        const Q t471 = shuffled<1, 0, 3, 2>(t470);
        // complex block of 61
        const Q t472 = Q(c[56], c[56], -c[57], c[57]) * t471;
        const Q t473 = shuffled<0, 1, 6, 7>(t233, t234);
        const Q t474 = shuffled<1, 0, 3, 2>(t473);
        const Q t475 = Q(c[58], c[58], c[59], -c[59]) * t474;
        const Q t476 = t472 + t475;
        const Q t477 = shuffled<0, 1, 6, 7>(t237, t233);
        const Q t478 = shuffled<1, 0, 3, 2>(t477);
        const Q t479 = Q(c[60], -c[60], c[61], c[61]) * t478;
        const Q t480 = shuffled<0, 1, 6, 7>(t234, t236);
        const Q t481 = shuffled<1, 0, 3, 2>(t480);
        const Q t482 = Q(-c[62], c[62], c[63], c[63]) * t481;
        const Q t483 = t479 + t482;
        const Q t484 = flipped<0, 0, 1, 0>(t483);
        const Q t485 = flipped<0, 1, 0, 0>(t476);
        // complex block of 2
        const Q t486 = t484 + t485;
        // complex block of 61
        const Q t487 = Q(c[58], -c[58], c[59], c[59]) * t471;
        const Q t488 = Q(-c[56], c[56], c[57], c[57]) * t474;
        const Q t489 = t487 + t488;
        const Q t490 = shuffled<0, 1, 6, 7>(t481, t478);
        const Q t491 = Q(c[60], c[60], -c[63], c[63]) * t490;
        const Q t492 = shuffled<0, 1, 6, 7>(t478, t481);
        const Q t493 = Q(c[62], c[62], c[61], -c[61]) * t492;
        const Q t494 = t491 + t493;
        const Q t495 = flipped<0, 1, 0, 1>(t494);
        // complex block of 2
        const Q t496 = t489 + t495;
        const Q t497 = t489 - t495;
        const Q t498 = flipped<1, 0, 1, 0>(t484);
        const Q t499 = flipped<0, 1, 0, 1>(t485);
        const Q t500 = t498 + t499;
        // complex block of 2
        const Q t501 = t468 + t486;
        const Q t502 = t468 - t486;
        const Q t503 = flipped<0, 0, 1, 0>(t496);
        // complex block of 2
        const Q t504 = t469 + t503;
        const Q t505 = t469 - t503;
        // complex block of 61
        const Q t506 = Q(c[50], c[50], c[51], c[51]) * t458;
        const Q t507 = Q(c[48], c[48], -c[49], -c[49]) * t460;
        const Q t508 = t506 + t507;
        const Q t509 = Q(c[52], c[52], c[55], c[55]) * t231;
        const Q t510 = Q(c[54], c[54], c[53], c[53]) * t229;
        const Q t511 = t509 + t510;
        const Q t512 = flipped<0, 0, 1, 1>(t511);
        // complex block of 2
        const Q t513 = t508 + t512;
        const Q t514 = t508 - t512;
        const Q t515 = joined(t299, t300);
        const Q t516 = flipped<0, 1, 0, 0>(t457);
        // spectrum block of 2
        const Q t517 = t515 + t516;
        const Q t518 = shuffled<0, 1, 4, 5>(t396, t400);
        const Q t519 = flipped<0, 0, 1, 0>(t518);
        // spectrum block of 3, multiplier 2
        const Q t520 = t519 + t517;
        const Q t521 = Q(c[4], c[4], -c[4], c[4]) * t518;
        const Q t522 = t517 - t521;
        // spectrum block of 2
        const Q t523 = t515 - t516;
        const Q t524 = shuffled<0, 1, 4, 5>(t397, t403);
        const Q t525 = flipped<0, 0, 0, 1>(t524);
        // spectrum block of 3, multiplier 2
        const Q t526 = t523 + t525;
        const Q t527 = Q(c[4], c[4], c[4], -c[4]) * t524;
        const Q t528 = t523 - t527;
        // complex block of 2
        const Q t529 = t349 + t336;
        const Q t530 = flipped<1, 0, 1, 0>(t338);
        // complex block of 2
        const Q t531 = t350 + t530;
        const Q t532 = flipped<0, 0, 0, 1>(t497);
        // complex block of 2
        const Q t533 = t513 + t532;
        const Q t534 = flipped<1, 0, 0, 1>(t500);
        // complex block of 2
        const Q t535 = t514 + t534;
        const Q t536 = shuffled<2, 3, 6, 7>(t529, t531);
        // complex block of 3, multiplier 2
        const Q t537 = t445 + t536;
        const Q t538 = t536 - t445;
        const Q t539 = shuffled<0, 1, 4, 5>(t529, t531);
        const Q t540 = shuffled<2, 3, 6, 7>(t533, t535);
        // complex block of 3, multiplier 2
        const Q t541 = t539 - t540;
        const Q t542 = t540 + t539;
        // complex block of 2
        const Q t543 = t349 - t336;
        // complex block of 2
        const Q t544 = t350 - t530;
        // complex block of 2
        const Q t545 = t513 - t532;
        // complex block of 2
        const Q t546 = t514 - t534;
        const Q t547 = shuffled<2, 3, 6, 7>(t543, t544);
        const Q t548 = flipped<1, 1, 0, 0>(t547);
        // complex block of 3, multiplier 2
        const Q t549 = t450 + t548;
        const Q t550 = flipped<0, 0, 1, 1>(t450);
        const Q t551 = t547 + t550;
        const Q t552 = shuffled<0, 1, 4, 5>(t543, t544);
        const Q t553 = shuffled<2, 3, 6, 7>(t545, t546);
        // complex block of 3, multiplier 2
        const Q t554 = t552 - t553;
        const Q t555 = t553 + t552;
        const Q t556 = flipped<0, 1, 0, 0>(t392);
        // complex block of 2
        const Q t557 = t412 + t556;
        const Q t558 = flipped<1, 0, 0, 0>(t395);
        // complex block of 2
        const Q t559 = t413 - t558;
        // complex block of 2
        const Q t560 = t412 - t556;
        // complex block of 2
        const Q t561 = t413 + t558;
        const Q t562 = shuffled<2, 3, 6, 7>(t339, t341);
        // complex block of 3, multiplier 2
        const Q t563 = t449 + t562;
        const Q t564 = shuffled<0, 1, 4, 5>(t501, t504);
        const Q t565 = t563 + t564;
        const Q t566 = c[4] * t563;
        const Q t567 = t564 - t566;
        const Q t568 = t449 - t562;
        const Q t569 = shuffled<2, 3, 6, 7>(t501, t504);
        const Q t570 = shuffled<0, 1, 4, 5>(t339, t341);
        // complex block of 3, multiplier 2
        const Q t571 = t569 + t570;
        const Q t572 = shuffled<2, 3, 6, 7>(t396, t400);
        const Q t573 = t571 + t572;
        const Q t574 = c[4] * t571;
        const Q t575 = t572 - t574;
        const Q t576 = t569 - t570;
        const Q t577 = shuffled<2, 3, 6, 7>(t340, t342);
        // complex block of 3, multiplier 2
        const Q t578 = t451 + t577;
        const Q t579 = shuffled<0, 1, 4, 5>(t502, t505);
        const Q t580 = t578 + t579;
        const Q t581 = c[4] * t578;
        const Q t582 = t579 - t581;
        const Q t583 = t451 - t577;
        const Q t584 = shuffled<2, 3, 6, 7>(t502, t505);
        const Q t585 = shuffled<0, 1, 4, 5>(t340, t342);
        // complex block of 3, multiplier 2
        const Q t586 = t584 + t585;
        const Q t587 = shuffled<2, 3, 6, 7>(t397, t403);
        const Q t588 = t586 + t587;
        const Q t589 = c[4] * t586;
        const Q t590 = t587 - t589;
        const Q t591 = t584 - t585;
        const Q t592 = shuffled<0, 1, 4, 5>(t557, t559);
        // spectrum block of 3, multiplier 2
        const Q t593 = c[5] * t592;
        const Q t594 = t522 - t593;
        // complex block of 3, multiplier 2
        const Q t595 = c[5] * t538;
        const Q t596 = t567 - t595;
        // complex block of 3, multiplier 2
        const Q t597 = c[5] * t542;
        const Q t598 = t575 + t597;
        // spectrum block of 5, multiplier 2
        const Q t599 = t596 + t598;
        const Q t600 = c[0] * t596;
        const Q t601 = c[1] * t598;
        const Q t602 = t600 - t601;
        const Q t603 = c[1] * t596;
        const Q t604 = t594 - t603;
        // spectrum block of 3, multiplier 2
        const Q t605 = t522 + t593;
        // complex block of 3, multiplier 2
        const Q t606 = t567 + t595;
        // complex block of 3, multiplier 2
        const Q t607 = t575 - t597;
        // spectrum block of 5, multiplier 2
        const Q t608 = t606 + t607;
        const Q t609 = c[0] * t606;
        const Q t610 = c[1] * t607;
        const Q t611 = t609 - t610;
        const Q t612 = c[1] * t606;
        const Q t613 = t605 - t612;
        // complex block of 3, multiplier 2
        const Q t614 = c[4] * t537;
        const Q t615 = shuffled<0, 1, 4, 5>(t533, t535);
        const Q t616 = t614 + t615;
        const Q t617 = c[5] * t568;
        const Q t618 = t616 + t617;
        const Q t619 = t616 - t617;
        const Q t620 = shuffled<2, 3, 6, 7>(t557, t559);
        // complex block of 3, multiplier 2
        const Q t621 = c[4] * t541;
        const Q t622 = t620 - t621;
        const Q t623 = c[5] * t576;
        const Q t624 = t622 + t623;
        const Q t625 = t622 - t623;
        // spectrum block of 5, multiplier 2
        const Q t626 = t608 + t605;
        io.pairs(13, 40, t626);
        const Q t627 = t611 + t605;
        const Q t628 = c[3] * t619;
        const Q t629 = c[2] * t625;
        const Q t630 = t628 + t629;
        const Q t631 = t627 - t630;
        io.pairs(16, 7, t631);
        const Q t632 = t627 + t630;
        io.pairs(22, 2, t632);
        const Q t633 = c[0] * t607;
        const Q t634 = t613 + t633;
        const Q t635 = c[2] * t619;
        const Q t636 = c[3] * t625;
        const Q t637 = t635 - t636;
        const Q t638 = t634 - t637;
        io.pairs(15, 18, t638);
        const Q t639 = t634 + t637;
        io.pairs(56, 55, t639);
        // spectrum block of 5, multiplier 2
        const Q t640 = t599 + t594;
        io.pairs(47, 32, t640);
        const Q t641 = t602 + t594;
        const Q t642 = c[3] * t618;
        const Q t643 = c[2] * t624;
        const Q t644 = t642 + t643;
        const Q t645 = t641 - t644;
        io.pairs(25, 30, t645);
        const Q t646 = t641 + t644;
        io.pairs(42, 26, t646);
        const Q t647 = c[0] * t598;
        const Q t648 = t604 + t647;
        const Q t649 = c[2] * t618;
        const Q t650 = c[3] * t624;
        const Q t651 = t649 - t650;
        const Q t652 = t648 - t651;
        io.pairs(12, 51, t652);
        const Q t653 = t648 + t651;
        io.pairs(57, 44, t653);
        // complex block of 3, multiplier 2
        const Q t654 = t615 - t537;
        // complex block of 3, multiplier 2
        const Q t655 = t541 + t620;
        // spectrum block of 5, multiplier 2
        const Q t656 = c[0] * t565;
        const Q t657 = c[1] * t573;
        const Q t658 = t656 - t657;
        const Q t659 = c[1] * t565;
        const Q t660 = t520 - t659;
        const Q t661 = t658 + t520;
        const Q t662 = c[3] * t654;
        const Q t663 = c[2] * t655;
        const Q t664 = t662 + t663;
        const Q t665 = t661 - t664;
        io.pairs(20, 24, t665);
        const Q t666 = t661 + t664;
        io.pairs(58, 33, t666);
        const Q t667 = c[0] * t573;
        const Q t668 = t660 + t667;
        const Q t669 = c[2] * t654;
        const Q t670 = c[3] * t655;
        const Q t671 = t669 - t670;
        const Q t672 = t668 - t671;
        io.pairs(34, 53, t672);
        const Q t673 = t668 + t671;
        io.pairs(9, 23, t673);
        const Q t674 = t565 + t573;
        const Q t675 = t674 + t520;
        io.pairs(1, 50, t675);
        const Q t676 = shuffled<0, 1, 4, 5>(t560, t561);
        // spectrum block of 3, multiplier 2
        const Q t677 = c[5] * t676;
        const Q t678 = t528 - t677;
        // complex block of 3, multiplier 2
        const Q t679 = c[5] * t551;
        const Q t680 = t582 - t679;
        // complex block of 3, multiplier 2
        const Q t681 = c[5] * t555;
        const Q t682 = t590 + t681;
        // spectrum block of 5, multiplier 2
        const Q t683 = t680 + t682;
        const Q t684 = c[0] * t680;
        const Q t685 = c[1] * t682;
        const Q t686 = t684 - t685;
        const Q t687 = c[1] * t680;
        const Q t688 = t678 - t687;
        // spectrum block of 3, multiplier 2
        const Q t689 = t528 + t677;
        // complex block of 3, multiplier 2
        const Q t690 = t582 + t679;
        // complex block of 3, multiplier 2
        const Q t691 = t590 - t681;
        // spectrum block of 5, multiplier 2
        const Q t692 = t690 + t691;
        const Q t693 = c[0] * t690;
        const Q t694 = c[1] * t691;
        const Q t695 = t693 - t694;
        const Q t696 = c[1] * t690;
        const Q t697 = t689 - t696;
        // complex block of 3, multiplier 2
        const Q t698 = Q(-c[4], -c[4], c[4], c[4]) * t549;
        const Q t699 = shuffled<0, 1, 4, 5>(t545, t546);
        const Q t700 = t698 + t699;
        const Q t701 = c[5] * t583;
        const Q t702 = t700 + t701;
        const Q t703 = t700 - t701;
        const Q t704 = shuffled<2, 3, 6, 7>(t560, t561);
        // complex block of 3, multiplier 2
        const Q t705 = c[4] * t554;
        const Q t706 = t704 - t705;
        const Q t707 = c[5] * t591;
        const Q t708 = t706 + t707;
        const Q t709 = t706 - t707;
        // spectrum block of 5, multiplier 2
        const Q t710 = t692 + t689;
        io.pairs(48, 21, t710);
        const Q t711 = t695 + t689;
        const Q t712 = c[3] * t703;
        const Q t713 = c[2] * t709;
        const Q t714 = t712 + t713;
        const Q t715 = t711 - t714;
        io.pairs(45, 54, t715);
        const Q t716 = t711 + t714;
        io.pairs(39, 59, t716);
        const Q t717 = c[0] * t691;
        const Q t718 = t697 + t717;
        const Q t719 = c[2] * t703;
        const Q t720 = c[3] * t709;
        const Q t721 = t719 - t720;
        const Q t722 = t718 - t721;
        io.pairs(46, 43, t722);
        const Q t723 = t718 + t721;
        io.pairs(5, 6, t723);
        // spectrum block of 5, multiplier 2
        const Q t724 = t683 + t678;
        io.pairs(14, 29, t724);
        const Q t725 = t686 + t678;
        const Q t726 = c[3] * t702;
        const Q t727 = c[2] * t708;
        const Q t728 = t726 + t727;
        const Q t729 = t725 - t728;
        io.pairs(36, 31, t729);
        const Q t730 = t725 + t728;
        io.pairs(19, 35, t730);
        const Q t731 = c[0] * t682;
        const Q t732 = t688 + t731;
        const Q t733 = c[2] * t702;
        const Q t734 = c[3] * t708;
        const Q t735 = t733 - t734;
        const Q t736 = t732 - t735;
        io.pairs(49, 10, t736);
        const Q t737 = t732 + t735;
        io.pairs(4, 17, t737);
        const Q t738 = flipped<0, 0, 1, 1>(t549);
        // complex block of 3, multiplier 2
        const Q t739 = t699 + t738;
        // complex block of 3, multiplier 2
        const Q t740 = t554 + t704;
        // spectrum block of 5, multiplier 2
        const Q t741 = c[0] * t580;
        const Q t742 = c[1] * t588;
        const Q t743 = t741 - t742;
        const Q t744 = c[1] * t580;
        const Q t745 = t526 - t744;
        const Q t746 = t743 + t526;
        const Q t747 = c[3] * t739;
        const Q t748 = c[2] * t740;
        const Q t749 = t747 + t748;
        const Q t750 = t746 - t749;
        io.pairs(41, 37, t750);
        const Q t751 = t746 + t749;
        io.pairs(3, 28, t751);
        const Q t752 = c[0] * t588;
        const Q t753 = t745 + t752;
        const Q t754 = c[2] * t739;
        const Q t755 = c[3] * t740;
        const Q t756 = t754 - t755;
        const Q t757 = t753 - t756;
        io.pairs(27, 8, t757);
        const Q t758 = t753 + t756;
        io.pairs(52, 38, t758);
        const Q t759 = t580 + t588;
        const Q t760 = t759 + t526;
        io.pairs(60, 11, t760);
    }
};

}  // namespace zulg
