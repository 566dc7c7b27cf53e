// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 61.
// Hartley transform of 61 points, form F; two lanes to a register.
// 259 sums, 190 differences, 213 products of registers, which do the 1298 steps of the graph, those with
// `scale` included; 188 shuffles, 23 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<61> {
    static constexpr int steps = 1298;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.20918808865965802,  // c[6]: P[1] of 61
        0.15497780918795065,  // c[7]: -Q[1] of 61
        0.16101883855703142,  // c[8]: Q[2] of 61
        0.20457446421174474,  // c[9]: P[2] of 61
        0.10340917490170637,  // c[10]: Q[3] of 61
        0.23892325195327072,  // c[11]: P[3] of 61
        0.035854723233524656,  // c[12]: -P[4] of 61
        0.2578608473569129,  // c[13]: Q[4] of 61
        0.2380667501964918,  // c[14]: P[5] of 61
        0.1053660297660444,  // c[15]: -Q[5] of 61
        0.20515266792101527,  // c[16]: Q[6] of 61
        0.1602815043062281,  // c[17]: P[6] of 61
        0.2406977012179139,  // c[18]: -P[7] of 61
        0.09920884237904212,  // c[19]: Q[7] of 61
        0.25061611613274265,  // c[20]: P[8] of 61
        0.07049354660050404,  // c[21]: Q[8] of 61
        0.24403592948183833,  // c[22]: P[9] of 61
        0.09068761161102994,  // c[23]: Q[9] of 61
        0.09855050326766758,  // c[24]: Q[11] of 61
        0.24096799804842803,  // c[25]: P[11] of 61
        0.19643012582250524,  // c[26]: -P[12] of 61
        0.17085954303793666,  // c[27]: Q[12] of 61
        0.25591390402746017,  // c[28]: -P[13] of 61
        0.047810579406671994,  // c[29]: -Q[13] of 61
        0.25795829907156226,  // c[30]: -P[14] of 61
        0.035146745480687275,  // c[31]: Q[14] of 61
        0.11042531820311542,  // c[32]: -P[15] of 61
        0.23576264945389142,  // c[33]: -Q[15] of 61
        0.07154712447968609,  // c[34]: Q[16] of 61
        0.2503173720628796,  // c[35]: P[16] of 61
        0.15440539602027134,  // c[36]: Q[17] of 61
        0.20961095261841867,  // c[37]: P[17] of 61
        0.12208153447883048,  // c[38]: P[18] of 61
        0.22994320324173947,  // c[39]: -Q[18] of 61
        0.13608829619444565,  // c[40]: -P[19] of 61
        0.22194087820108896,  // c[41]: -Q[19] of 61
        0.04709103298244708,  // c[42]: Q[21] of 61
        0.256047285458026,  // c[43]: P[21] of 61
        0.02612376015167778,  // c[44]: -P[22] of 61
        0.25902765669579647,  // c[45]: Q[22] of 61
        0.09177478132326014,  // c[46]: -P[23] of 61
        0.24362915936079071,  // c[47]: -Q[23] of 61
        0.2514915834033143,  // c[48]: P[24] of 61
        0.0673035010610264,  // c[49]: -Q[24] of 61
        0.23335104576758062,  // c[50]: -P[25] of 61
        0.1154342549547329,  // c[51]: Q[25] of 61
        0.1680594978185787,  // c[52]: -P[26] of 61
        0.1988310412655552,  // c[53]: Q[26] of 61
        0.25817133658934166,  // c[54]: -P[27] of 61
        0.0335460689418391,  // c[55]: -Q[27] of 61
        0.21139251213699267,  // c[56]: P[28] of 61
        0.15195717683014903,  // c[57]: -Q[28] of 61
        0.1192479770652986,  // c[58]: -P[29] of 61
        0.2314253610640195,  // c[59]: Q[29] of 61
        0.10452846326765347,  // c[60]: -sin 2 pi 59/60
        0.9945218953682733,  // c[61]: cos 2 pi 59/60
        0.6691306063588582,  // c[62]: -sin 2 pi 53/60
        0.7431448254773942,  // c[63]: cos 2 pi 53/60
        0.9135454576426009,  // c[64]: -sin 2 pi 49/60
        0.4067366430758002,  // c[65]: cos 2 pi 49/60
        0.20791169081775934,  // c[66]: cos 2 pi 47/60
        0.9781476007338057,  // c[67]: -sin 2 pi 47/60
        0.12042596856560207,  // c[68]: P[10] of 61
        0.016666666666666666,  // c[69]: 1/60
        0.23081456598926853,  // c[70]: Q[10] of 61
        0.005558934851007752,  // c[71]: -P[20] of 61
        0.2602823006297202,  // c[72]: Q[20] of 61
        0.13017082793177756,  // c[73]: beta of 61
        0.22541108450079606,  // c[74]: -sin 2 pi 2/3 times Q[20] of 61
        0.19989127771018625,  // c[75]: -sin 2 pi 2/3 times Q[10] of 61
        0.004814178798955376,  // c[76]: -sin 2 pi 2/3 times -P[20] of 61
        0.10429194805315764,  // c[77]: -sin 2 pi 2/3 times P[10] of 61
        0.4330127018922193,  // c[78]: -sin 2 pi 2/3 times -cos 2 pi 2/3
        0.75,  // c[79]: -sin 2 pi 2/3 times -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x47_29 = io.in(47, 29);
        const P x13_21 = io.in(13, 21);
        // real block of 3, multiplier 2
        const P t0 = x47_29 + x13_21;
        const P t1 = x47_29 - x13_21;
        const P x1_11 = io.in(1, 11);
        const P t2 = t0 + x1_11;
        const P t3 = c[4] * t0;
        const P t4 = x1_11 - t3;
        const P x57_17 = io.in(57, 17);
        const P x56_6 = io.in(56, 6);
        // real block of 3, multiplier 2
        const P t5 = x57_17 + x56_6;
        const P t6 = x57_17 - x56_6;
        const P x9_38 = io.in(9, 38);
        const P t7 = t5 + x9_38;
        const P t8 = c[4] * t5;
        const P t9 = x9_38 - t8;
        const P x25_31 = io.in(25, 31);
        const P x16_54 = io.in(16, 54);
        // real block of 3, multiplier 2
        const P t10 = x25_31 + x16_54;
        const P t11 = x25_31 - x16_54;
        const P x20_37 = io.in(20, 37);
        const P t12 = t10 + x20_37;
        const P t13 = c[4] * t10;
        const P t14 = x20_37 - t13;
        const P x42_35 = io.in(42, 35);
        const P x22_59 = io.in(22, 59);
        // real block of 3, multiplier 2
        const P t15 = x42_35 + x22_59;
        const P t16 = x42_35 - x22_59;
        const P x58_28 = io.in(58, 28);
        const P t17 = t15 + x58_28;
        const P t18 = c[4] * t15;
        const P t19 = x58_28 - t18;
        const P x12_10 = io.in(12, 10);
        const P x15_43 = io.in(15, 43);
        // real block of 3, multiplier 2
        const P t20 = x12_10 + x15_43;
        const P t21 = x12_10 - x15_43;
        const P x34_8 = io.in(34, 8);
        const P t22 = t20 + x34_8;
        const P t23 = c[4] * t20;
        const P t24 = x34_8 - t23;
        // real block of 5, multiplier 2
        const P t25 = t7 + t22;
        const P t26 = t7 - t22;
        const P t27 = t17 + t12;
        const P t28 = t17 - t12;
        const P t29 = t25 + t27;
        const P t30 = t29 + t2;
        const P t31 = c[0] * t25;
        const P t32 = t2 - t31;
        const P t33 = c[1] * t27;
        const P t34 = t32 + t33;
        const P t35 = c[2] * t26;
        const P t36 = c[3] * t28;
        const P t37 = t35 + t36;
        const P t38 = c[1] * t25;
        const P t39 = c[0] * t27;
        const P t40 = t38 - t39;
        const P t41 = t40 + t2;
        const P t42 = c[3] * t26;
        const P t43 = c[2] * t28;
        const P t44 = t42 - t43;
        // complex block of 5, multiplier 2
        const P t45 = t9 + t24;
        // real block of 3, multiplier 2
        const P t46 = c[5] * t6;
        // real block of 3, multiplier 2
        const P t47 = c[5] * t21;
        // complex block of 5, multiplier 2
        const P t48 = t46 + t47;
        const P t49 = t9 - t24;
        const P t50 = t46 - t47;
        const P t51 = t19 + t14;
        // real block of 3, multiplier 2
        const P t52 = c[5] * t16;
        // real block of 3, multiplier 2
        const P t53 = c[5] * t11;
        // complex block of 5, multiplier 2
        const P t54 = t52 + t53;
        const P t55 = t19 - t14;
        const P t56 = t52 - t53;
        const P t57 = t45 + t51;
        const P t58 = t48 + t54;
        const P t59 = t57 + t4;
        // real block of 3, multiplier 2
        const P t60 = c[5] * t1;
        // complex block of 5, multiplier 2
        const P t61 = t58 + t60;
        const P t62 = c[1] * t45;
        const P t63 = c[0] * t51;
        const P t64 = t62 - t63;
        const P t65 = t64 + t4;
        const P t66 = c[1] * t48;
        const P t67 = c[0] * t54;
        const P t68 = t66 - t67;
        const P t69 = t68 + t60;
        const P t70 = c[3] * t49;
        const P t71 = c[2] * t55;
        const P t72 = t70 - t71;
        const P t73 = c[3] * t50;
        const P t74 = c[2] * t56;
        const P t75 = t73 - t74;
        const P t76 = t65 + t75;
        const P t77 = t69 - t72;
        const P t78 = t65 - t75;
        const P t79 = t69 + t72;
        const P t80 = c[0] * t45;
        const P t81 = t4 - t80;
        const P t82 = c[1] * t51;
        const P t83 = t81 + t82;
        const P t84 = c[0] * t48;
        const P t85 = t60 - t84;
        const P t86 = c[1] * t54;
        const P t87 = t85 + t86;
        const P t88 = c[2] * t49;
        const P t89 = c[3] * t55;
        const P t90 = t88 + t89;
        const P t91 = c[2] * t50;
        const P t92 = c[3] * t56;
        const P t93 = t91 + t92;
        const P t94 = t83 + t93;
        const P t95 = t87 - t90;
        const P t96 = t83 - t93;
        const P t97 = t87 + t90;
        const P x14_32 = io.in(14, 32);
        const P x48_40 = io.in(48, 40);
        // real block of 3, multiplier 2
        const P t98 = x14_32 + x48_40;
        const P t99 = x14_32 - x48_40;
        const P x60_50 = io.in(60, 50);
        const P t100 = t98 + x60_50;
        const P t101 = c[4] * t98;
        const P t102 = x60_50 - t101;
        const P x4_44 = io.in(4, 44);
        const P x5_55 = io.in(5, 55);
        // real block of 3, multiplier 2
        const P t103 = x4_44 + x5_55;
        const P t104 = x4_44 - x5_55;
        const P x52_23 = io.in(52, 23);
        const P t105 = t103 + x52_23;
        const P t106 = c[4] * t103;
        const P t107 = x52_23 - t106;
        const P x36_30 = io.in(36, 30);
        const P x45_7 = io.in(45, 7);
        // real block of 3, multiplier 2
        const P t108 = x36_30 + x45_7;
        const P t109 = x36_30 - x45_7;
        const P x41_24 = io.in(41, 24);
        const P t110 = t108 + x41_24;
        const P t111 = c[4] * t108;
        const P t112 = x41_24 - t111;
        const P x19_26 = io.in(19, 26);
        const P x39_2 = io.in(39, 2);
        // real block of 3, multiplier 2
        const P t113 = x19_26 + x39_2;
        const P t114 = x19_26 - x39_2;
        const P x3_33 = io.in(3, 33);
        const P t115 = t113 + x3_33;
        const P t116 = c[4] * t113;
        const P t117 = x3_33 - t116;
        const P x49_51 = io.in(49, 51);
        const P x46_18 = io.in(46, 18);
        // real block of 3, multiplier 2
        const P t118 = x49_51 + x46_18;
        const P t119 = x49_51 - x46_18;
        const P x27_53 = io.in(27, 53);
        const P t120 = t118 + x27_53;
        const P t121 = c[4] * t118;
        const P t122 = x27_53 - t121;
        // real block of 5, multiplier 2
        const P t123 = t105 + t120;
        const P t124 = t105 - t120;
        const P t125 = t115 + t110;
        const P t126 = t115 - t110;
        const P t127 = t123 + t125;
        const P t128 = t127 + t100;
        const P t129 = c[0] * t123;
        const P t130 = t100 - t129;
        const P t131 = c[1] * t125;
        const P t132 = t130 + t131;
        const P t133 = c[2] * t124;
        const P t134 = c[3] * t126;
        const P t135 = t133 + t134;
        const P t136 = c[1] * t123;
        const P t137 = c[0] * t125;
        const P t138 = t136 - t137;
        const P t139 = t138 + t100;
        const P t140 = c[3] * t124;
        const P t141 = c[2] * t126;
        const P t142 = t140 - t141;
        // complex block of 5, multiplier 2
        const P t143 = t107 + t122;
        // real block of 3, multiplier 2
        const P t144 = c[5] * t104;
        // real block of 3, multiplier 2
        const P t145 = c[5] * t119;
        // complex block of 5, multiplier 2
        const P t146 = t144 + t145;
        const P t147 = t107 - t122;
        const P t148 = t144 - t145;
        const P t149 = t117 + t112;
        // real block of 3, multiplier 2
        const P t150 = c[5] * t114;
        // real block of 3, multiplier 2
        const P t151 = c[5] * t109;
        // complex block of 5, multiplier 2
        const P t152 = t150 + t151;
        const P t153 = t117 - t112;
        const P t154 = t150 - t151;
        const P t155 = t143 + t149;
        const P t156 = t146 + t152;
        const P t157 = t155 + t102;
        // real block of 3, multiplier 2
        const P t158 = c[5] * t99;
        // complex block of 5, multiplier 2
        const P t159 = t156 + t158;
        const P t160 = c[1] * t143;
        const P t161 = c[0] * t149;
        const P t162 = t160 - t161;
        const P t163 = t162 + t102;
        const P t164 = c[1] * t146;
        const P t165 = c[0] * t152;
        const P t166 = t164 - t165;
        const P t167 = t166 + t158;
        const P t168 = c[3] * t147;
        const P t169 = c[2] * t153;
        const P t170 = t168 - t169;
        const P t171 = c[3] * t148;
        const P t172 = c[2] * t154;
        const P t173 = t171 - t172;
        const P t174 = t163 + t173;
        const P t175 = t167 - t170;
        const P t176 = t163 - t173;
        const P t177 = t167 + t170;
        const P t178 = c[0] * t143;
        const P t179 = t102 - t178;
        const P t180 = c[1] * t149;
        const P t181 = t179 + t180;
        const P t182 = c[0] * t146;
        const P t183 = t158 - t182;
        const P t184 = c[1] * t152;
        const P t185 = t183 + t184;
        const P t186 = c[2] * t147;
        const P t187 = c[3] * t153;
        const P t188 = t186 + t187;
        const P t189 = c[2] * t148;
        const P t190 = c[3] * t154;
        const P t191 = t189 + t190;
        const P t192 = t181 + t191;
        const P t193 = t185 - t188;
        const P t194 = t181 - t191;
        const P t195 = t185 + t188;
        // real block of 2
        const P t196 = t30 + t128;
        const P t197 = t30 - t128;
        const V t198 = part<0>(t196);
        const V t199 = part<1>(t196);
        // real block of 2
        const V t200 = t198 + t199;
        const V t201 = t198 - t199;
        const P t202 = shuffled<0, 2>(t76, t77);
        const P t203 = shuffled<0, 2>(t174, t175);
        // complex block of 2
        const P t204 = t202 + t203;
        const P t205 = shuffled<0, 3>(t202, t203);
        const P t206 = shuffled<0, 3>(t203, t202);
        const P t207 = t205 - t206;
        const P t208 = shuffled<1, 3>(t76, t77);
        const P t209 = shuffled<1, 3>(t174, t175);
        // complex block of 2
        const P t210 = t208 + t209;
        const P t211 = shuffled<0, 3>(t208, t209);
        const P t212 = shuffled<0, 3>(t209, t208);
        const P t213 = t211 - t212;
        // complex block of 2
        const P t214 = t204 + t210;
        const P t215 = shuffled<0, 3>(t204, t210);
        const P t216 = shuffled<0, 3>(t210, t204);
        const P t217 = t215 - t216;
        const P t218 = shuffled<1, 0>(t213);
        const P t219 = flipped<1, 0>(t218);
        // complex block of 2
        const P t220 = t207 + t219;
        const P t221 = t207 - t219;
        const P t222 = shuffled<0, 2>(t96, t97);
        const P t223 = shuffled<0, 2>(t194, t195);
        // complex block of 2
        const P t224 = t222 + t223;
        const P t225 = t222 - t223;
        const P t226 = shuffled<1, 3>(t96, t97);
        const P t227 = shuffled<1, 3>(t194, t195);
        // complex block of 2
        const P t228 = t226 + t227;
        const P t229 = t226 - t227;
        // complex block of 2
        const P t230 = t224 + t228;
        const P t231 = t224 - t228;
        const P t232 = shuffled<1, 0>(t229);
        const P t233 = flipped<1, 0>(t232);
        // complex block of 2
        const P t234 = t225 + t233;
        const P t235 = t225 - t233;
        const P t236 = shuffled<0, 2>(t34, t37);
        const P t237 = shuffled<0, 2>(t132, t135);
        // complex block of 2
        const P t238 = t236 + t237;
        const P t239 = shuffled<0, 3>(t236, t237);
        const P t240 = shuffled<0, 3>(t237, t236);
        const P t241 = t239 - t240;
        const P t242 = shuffled<1, 3>(t34, t37);
        const P t243 = shuffled<1, 3>(t132, t135);
        // complex block of 2
        const P t244 = t242 + t243;
        const P t245 = shuffled<0, 3>(t242, t243);
        const P t246 = shuffled<0, 3>(t243, t242);
        const P t247 = t245 - t246;
        // complex block of 2
        const P t248 = t238 + t244;
        const P t249 = shuffled<0, 3>(t238, t244);
        const P t250 = shuffled<0, 3>(t244, t238);
        const P t251 = t249 - t250;
        const P t252 = shuffled<1, 0>(t247);
        const P t253 = flipped<1, 0>(t252);
        // complex block of 2
        const P t254 = t241 + t253;
        const P t255 = t241 - t253;
        const P t256 = shuffled<0, 2>(t78, t79);
        const P t257 = shuffled<0, 2>(t176, t177);
        // complex block of 2
        const P t258 = t256 + t257;
        const P t259 = shuffled<0, 3>(t256, t257);
        const P t260 = shuffled<0, 3>(t257, t256);
        const P t261 = t259 - t260;
        const P t262 = shuffled<1, 3>(t78, t79);
        const P t263 = shuffled<1, 3>(t176, t177);
        // complex block of 2
        const P t264 = t262 + t263;
        const P t265 = shuffled<0, 3>(t262, t263);
        const P t266 = shuffled<0, 3>(t263, t262);
        const P t267 = t265 - t266;
        // complex block of 2
        const P t268 = t258 + t264;
        const P t269 = shuffled<0, 3>(t258, t264);
        const P t270 = shuffled<0, 3>(t264, t258);
        const P t271 = t269 - t270;
        const P t272 = shuffled<1, 0>(t267);
        const P t273 = flipped<1, 0>(t272);
        // complex block of 2
        const P t274 = t261 + t273;
        const P t275 = t261 - t273;
        const P t276 = shuffled<0, 2>(t59, t61);
        const P t277 = shuffled<0, 2>(t157, t159);
        // complex block of 2
        const P t278 = t276 + t277;
        const P t279 = t276 - t277;
        const P t280 = shuffled<1, 3>(t59, t61);
        const P t281 = shuffled<1, 3>(t157, t159);
        // complex block of 2
        const P t282 = t280 + t281;
        const P t283 = t280 - t281;
        // complex block of 2
        const P t284 = t278 + t282;
        const P t285 = t278 - t282;
        const P t286 = shuffled<1, 0>(t283);
        const P t287 = flipped<1, 0>(t286);
        // complex block of 2
        const P t288 = t279 + t287;
        const P t289 = t279 - t287;
        const P t290 = shuffled<0, 2>(t41, t44);
        const P t291 = shuffled<0, 2>(t139, t142);
        // complex block of 2
        const P t292 = t290 + t291;
        const P t293 = t290 - t291;
        const P t294 = shuffled<1, 3>(t41, t44);
        const P t295 = shuffled<1, 3>(t139, t142);
        // complex block of 2
        const P t296 = t294 + t295;
        const P t297 = t294 - t295;
        // complex block of 2
        const P t298 = t292 + t296;
        const P t299 = t292 - t296;
        const P t300 = shuffled<1, 0>(t297);
        const P t301 = flipped<1, 0>(t300);
        // complex block of 2
        const P t302 = t293 + t301;
        const P t303 = t293 - t301;
        const P t304 = shuffled<0, 2>(t94, t95);
        const P t305 = shuffled<0, 2>(t192, t193);
        // complex block of 2
        const P t306 = t304 + t305;
        const P t307 = shuffled<0, 3>(t304, t305);
        const P t308 = shuffled<0, 3>(t305, t304);
        const P t309 = t307 - t308;
        const P t310 = shuffled<1, 3>(t94, t95);
        const P t311 = shuffled<1, 3>(t192, t193);
        // complex block of 2
        const P t312 = t310 + t311;
        const P t313 = shuffled<0, 3>(t310, t311);
        const P t314 = shuffled<0, 3>(t311, t310);
        const P t315 = t313 - t314;
        // complex block of 2
        const P t316 = t306 + t312;
        const P t317 = shuffled<0, 3>(t306, t312);
        const P t318 = shuffled<0, 3>(t312, t306);
        const P t319 = t317 - t318;
        const P t320 = shuffled<1, 0>(t315);
        const P t321 = flipped<1, 0>(t320);
        // complex block of 2
        const P t322 = t309 + t321;
        const P t323 = t309 - t321;
        const V x0 = io.in(0);
        // real block of 61
        const V t324 = x0 + t200;
        io.out(0, t324);
        const P t325 = c[6] * t275;
        const P t326 = shuffled<1, 0>(t275);
        const P t327 = P(c[7], -c[7]) * t326;
        const P t328 = t325 + t327;
        const P t329 = shuffled<1, 0>(t319);
        const P t330 = c[8] * t329;
        const P t331 = P(c[9], -c[9]) * t319;
        const P t332 = t330 + t331;
        const P t333 = shuffled<1, 0>(t255);
        const P t334 = c[10] * t333;
        const P t335 = P(c[11], -c[11]) * t255;
        const P t336 = t334 + t335;
        const P t337 = P(-c[12], c[12]) * t214;
        const P t338 = shuffled<1, 0>(t214);
        const P t339 = c[13] * t338;
        const P t340 = t337 + t339;
        const P t341 = c[14] * t289;
        const P t342 = shuffled<1, 0>(t289);
        const P t343 = P(c[15], -c[15]) * t342;
        const P t344 = t341 + t343;
        const P t345 = shuffled<1, 0>(t299);
        const P t346 = c[16] * t345;
        const P t347 = P(c[17], -c[17]) * t299;
        const P t348 = t346 + t347;
        const P t349 = P(-c[18], c[18]) * t235;
        const P t350 = shuffled<1, 0>(t235);
        const P t351 = c[19] * t350;
        const P t352 = t349 + t351;
        const P t353 = c[20] * t230;
        const P t354 = shuffled<1, 0>(t230);
        const P t355 = P(-c[21], c[21]) * t354;
        const P t356 = t353 + t355;
        const P t357 = c[22] * t303;
        const P t358 = shuffled<1, 0>(t303);
        const P t359 = P(-c[23], c[23]) * t358;
        const P t360 = t357 + t359;
        const V t361 = part<0>(t285);
        const V t362 = c[68] * t361;
        const P t363 = joined(x0, t362);
        const V t364 = part<1>(t285);
        const P t365 = joined(t200, t364);
        const P t366 = P(-c[69], c[70]) * t365;
        const P t367 = t363 + t366;
        const P t368 = shuffled<1, 0>(t221);
        const P t369 = c[24] * t368;
        const P t370 = P(c[25], -c[25]) * t221;
        const P t371 = t369 + t370;
        const P t372 = P(-c[26], c[26]) * t248;
        const P t373 = shuffled<1, 0>(t248);
        const P t374 = c[27] * t373;
        const P t375 = t372 + t374;
        const P t376 = P(-c[28], c[28]) * t323;
        const P t377 = shuffled<1, 0>(t323);
        const P t378 = c[29] * t377;
        const P t379 = t376 + t378;
        const P t380 = P(-c[30], c[30]) * t271;
        const P t381 = shuffled<1, 0>(t271);
        const P t382 = c[31] * t381;
        const P t383 = t380 + t382;
        const P t384 = P(-c[32], c[32]) * t197;
        const P t385 = shuffled<1, 0>(t197);
        const P t386 = c[33] * t385;
        const P t387 = t384 + t386;
        const P t388 = shuffled<1, 0>(t268);
        const P t389 = c[34] * t388;
        const P t390 = P(c[35], -c[35]) * t268;
        const P t391 = t389 + t390;
        const P t392 = shuffled<1, 0>(t322);
        const P t393 = c[36] * t392;
        const P t394 = P(c[37], -c[37]) * t322;
        const P t395 = t393 + t394;
        const P t396 = c[38] * t251;
        const P t397 = shuffled<1, 0>(t251);
        const P t398 = P(-c[39], c[39]) * t397;
        const P t399 = t396 + t398;
        const P t400 = P(-c[40], c[40]) * t220;
        const P t401 = shuffled<1, 0>(t220);
        const P t402 = c[41] * t401;
        const P t403 = t400 + t402;
        const V t404 = part<0>(t284);
        const V t405 = c[71] * t404;
        const V t406 = part<1>(t284);
        const V t407 = c[72] * t406;
        const V t408 = t405 + t407;
        const P t409 = shuffled<1, 0>(t302);
        const P t410 = c[42] * t409;
        const P t411 = P(c[43], -c[43]) * t302;
        const P t412 = t410 + t411;
        const P t413 = P(-c[44], c[44]) * t231;
        const P t414 = shuffled<1, 0>(t231);
        const P t415 = c[45] * t414;
        const P t416 = t413 + t415;
        const P t417 = P(-c[46], c[46]) * t234;
        const P t418 = shuffled<1, 0>(t234);
        const P t419 = c[47] * t418;
        const P t420 = t417 + t419;
        const P t421 = c[48] * t298;
        const P t422 = shuffled<1, 0>(t298);
        const P t423 = P(c[49], -c[49]) * t422;
        const P t424 = t421 + t423;
        const P t425 = P(-c[50], c[50]) * t288;
        const P t426 = shuffled<1, 0>(t288);
        const P t427 = c[51] * t426;
        const P t428 = t425 + t427;
        const P t429 = P(-c[52], c[52]) * t217;
        const P t430 = shuffled<1, 0>(t217);
        const P t431 = c[53] * t430;
        const P t432 = t429 + t431;
        const P t433 = P(-c[54], c[54]) * t254;
        const P t434 = shuffled<1, 0>(t254);
        const P t435 = c[55] * t434;
        const P t436 = t433 + t435;
        const P t437 = c[56] * t316;
        const P t438 = shuffled<1, 0>(t316);
        const P t439 = P(-c[57], c[57]) * t438;
        const P t440 = t437 + t439;
        const P t441 = P(-c[58], c[58]) * t274;
        const P t442 = shuffled<1, 0>(t274);
        const P t443 = c[59] * t442;
        const P t444 = t441 + t443;
        const P t445 = flipped<0, 1>(t383);
        // complex block of 3
        const P t446 = t432 + t445;
        const P t447 = t432 - t445;
        const P t448 = t446 + t348;
        const P t449 = c[4] * t446;
        const P t450 = t348 - t449;
        const P t451 = P(c[5], -c[5]) * t447;
        const P t452 = shuffled<1, 0>(t451);
        const P t453 = t450 + t452;
        const P t454 = t450 - t452;
        const P t455 = flipped<0, 1>(t356);
        // complex block of 3
        const P t456 = t440 + t455;
        const P t457 = t440 - t455;
        const P t458 = t456 + t375;
        const P t459 = c[4] * t456;
        const P t460 = t375 - t459;
        const P t461 = P(c[5], -c[5]) * t457;
        const P t462 = shuffled<1, 0>(t461);
        const P t463 = t460 + t462;
        const P t464 = t460 - t462;
        // complex block of 3
        const P t465 = t416 + t332;
        const P t466 = shuffled<0, 3>(t416, t332);
        const P t467 = shuffled<0, 3>(t332, t416);
        const P t468 = t466 - t467;
        const P t469 = t465 + t399;
        const P t470 = P(-c[4], c[4]) * t465;
        const P t471 = flipped<0, 1>(t399);
        const P t472 = t470 + t471;
        const P t473 = P(c[5], -c[5]) * t468;
        const P t474 = shuffled<1, 0>(t473);
        const P t475 = t472 + t474;
        const P t476 = t472 - t474;
        const P t477 = flipped<0, 1>(t391);
        // complex block of 3
        const P t478 = t340 + t477;
        const P t479 = flipped<1, 0>(t340);
        const P t480 = t391 + t479;
        const P t481 = t478 + t424;
        const P t482 = c[4] * t478;
        const P t483 = t424 - t482;
        const P t484 = c[5] * t480;
        const P t485 = shuffled<1, 0>(t484);
        const P t486 = t483 + t485;
        const P t487 = t483 - t485;
        // real block of 61
        const V t488 = -c[73] * t201;
        const P t489 = joined(t408, t488);
        // spectrum block of 3
        const P t490 = t367 - t489;
        const P t491 = shuffled<0, 3>(t367, t489);
        const P t492 = flipped<0, 1>(t491);
        const P t493 = shuffled<0, 3>(t489, t367);
        const P t494 = P(c[4], -c[4]) * t493;
        const P t495 = t492 + t494;
        const P t496 = shuffled<0, 2>(t284, t285);
        const P t497 = P(c[74], c[75]) * t496;
        const P t498 = shuffled<1, 3>(t284, t365);
        const P t499 = P(c[76], c[77]) * t498;
        const P t500 = t497 - t499;
        const P t501 = flipped<1, 0>(t500);
        const P t502 = t495 + t501;
        const P t503 = t495 - t501;
        const P t504 = shuffled<0, 2>(t458, t463);
        const P t505 = shuffled<0, 2>(t481, t486);
        // spectrum block of 5
        const P t506 = t504 + t505;
        const P t507 = shuffled<0, 2>(t490, t502);
        const P t508 = t506 + t507;
        const P t509 = c[1] * t504;
        const P t510 = c[0] * t505;
        const P t511 = t509 - t510;
        const P t512 = t511 + t507;
        const P t513 = shuffled<1, 3>(t458, t463);
        const P t514 = c[3] * t513;
        const P t515 = shuffled<1, 3>(t481, t486);
        const P t516 = c[2] * t515;
        const P t517 = t514 + t516;
        const P t518 = t512 - t517;
        const P t519 = t512 + t517;
        const P t520 = c[0] * t504;
        const P t521 = t507 - t520;
        const P t522 = c[1] * t505;
        const P t523 = t521 + t522;
        const P t524 = c[2] * t513;
        const P t525 = c[3] * t515;
        const P t526 = t524 - t525;
        const P t527 = t523 - t526;
        const P t528 = t523 + t526;
        const P t529 = shuffled<0, 2>(t469, t475);
        const P t530 = shuffled<0, 2>(t448, t453);
        // spectrum block of 5
        const P t531 = t529 + t530;
        const P t532 = shuffled<1, 3>(t490, t502);
        const P t533 = t531 + t532;
        const P t534 = c[1] * t529;
        const P t535 = c[0] * t530;
        const P t536 = t534 - t535;
        const P t537 = t536 + t532;
        const P t538 = shuffled<1, 3>(t469, t475);
        const P t539 = c[3] * t538;
        const P t540 = shuffled<1, 3>(t448, t453);
        const P t541 = P(-c[2], c[2]) * t540;
        const P t542 = t539 + t541;
        const P t543 = flipped<1, 0>(t542);
        const P t544 = t537 + t543;
        const P t545 = t537 - t543;
        const P t546 = c[0] * t529;
        const P t547 = t532 - t546;
        const P t548 = c[1] * t530;
        const P t549 = t547 + t548;
        const P t550 = c[3] * t540;
        const P t551 = P(c[2], -c[2]) * t538;
        const P t552 = t550 + t551;
        const P t553 = t549 - t552;
        const P t554 = t549 + t552;
        // spectrum block of 2
        const P t555 = t508 + t533;
        const P t556 = t508 - t533;
        // spectrum block of 2
        const P t557 = t518 + t544;
        const P t558 = t518 - t544;
        // spectrum block of 2
        const P t559 = t527 + t553;
        const P t560 = t527 - t553;
        // spectrum block of 2
        const P t561 = t528 + t554;
        const P t562 = t528 - t554;
        // spectrum block of 2
        const P t563 = t519 + t545;
        const P t564 = t519 - t545;
        const P t565 = shuffled<0, 2>(t464, t476);
        const P t566 = shuffled<0, 2>(t487, t454);
        // spectrum block of 5
        const P t567 = t565 + t566;
        const P t568 = t567 + t503;
        const P t569 = c[1] * t565;
        const P t570 = c[0] * t566;
        const P t571 = t569 - t570;
        const P t572 = t571 + t503;
        const P t573 = shuffled<1, 3>(t464, t476);
        const P t574 = c[3] * t573;
        const P t575 = shuffled<1, 3>(t487, t454);
        const P t576 = c[2] * t575;
        const P t577 = t574 + t576;
        const P t578 = flipped<1, 0>(t577);
        const P t579 = t572 + t578;
        const P t580 = t572 - t578;
        const P t581 = c[0] * t565;
        const P t582 = t503 - t581;
        const P t583 = c[1] * t566;
        const P t584 = t582 + t583;
        const P t585 = P(-c[3], c[3]) * t575;
        const P t586 = P(c[2], -c[2]) * t573;
        const P t587 = t585 + t586;
        const P t588 = t584 - t587;
        const P t589 = t584 + t587;
        const P t590 = shuffled<0, 2>(t568, t579);
        const P t591 = shuffled<1, 3>(t568, t579);
        // spectrum block of 2
        const P t592 = t590 + t591;
        const P t593 = t590 - t591;
        const P t594 = shuffled<0, 2>(t588, t589);
        const P t595 = shuffled<1, 3>(t588, t589);
        // spectrum block of 2
        const P t596 = t594 + t595;
        const P t597 = t594 - t595;
        const V t598 = part<0>(t580);
        const V t599 = part<1>(t580);
        // spectrum block of 2
        const V t600 = t598 + t599;
        const V t601 = t598 - t599;
        const P t602 = shuffled<1, 2>(t328, t444);
        const P t603 = shuffled<1, 2>(t444, t328);
        const P t604 = flipped<0, 1>(t603);
        // complex block of 2
        const P t605 = t602 + t604;
        const P t606 = t602 - t604;
        const P t607 = shuffled<1, 0>(t606);
        // mirrored skew block of 30
        const P t608 = c[60] * t607;
        const P t609 = P(c[61], -c[61]) * t606;
        const P t610 = t608 + t609;
        const P t611 = shuffled<1, 2>(t336, t436);
        const P t612 = shuffled<1, 2>(t436, t336);
        // complex block of 2
        const P t613 = t611 - t612;
        const P t614 = t612 + t611;
        const P t615 = shuffled<1, 0>(t614);
        // mirrored skew block of 30
        const P t616 = c[1] * t615;
        const P t617 = P(c[3], -c[3]) * t614;
        const P t618 = t616 + t617;
        const P t619 = shuffled<1, 2>(t344, t428);
        const P t620 = shuffled<1, 2>(t428, t344);
        const P t621 = flipped<0, 1>(t620);
        // complex block of 2
        const P t622 = t619 + t621;
        const P t623 = t619 - t621;
        const V t624 = part<0>(t623);
        // mirrored skew block of 30
        const V t625 = c[5] * t624;
        const V t626 = part<1>(t623);
        const V t627 = c[4] * t626;
        const V t628 = t625 + t627;
        const P t629 = shuffled<1, 2>(t352, t420);
        const P t630 = shuffled<1, 2>(t420, t352);
        // complex block of 2
        const P t631 = t629 - t630;
        const P t632 = t630 + t629;
        const P t633 = shuffled<1, 0>(t632);
        // mirrored skew block of 30
        const P t634 = c[62] * t633;
        const P t635 = P(c[63], -c[63]) * t632;
        const P t636 = t634 + t635;
        const P t637 = shuffled<1, 2>(t360, t412);
        const P t638 = shuffled<1, 2>(t412, t360);
        const P t639 = flipped<0, 1>(t638);
        // complex block of 2
        const P t640 = t637 + t639;
        const P t641 = t637 - t639;
        const P t642 = shuffled<1, 0>(t641);
        // mirrored skew block of 30
        const P t643 = c[0] * t642;
        const P t644 = P(c[2], -c[2]) * t641;
        const P t645 = t643 + t644;
        const P t646 = shuffled<1, 2>(t371, t403);
        const P t647 = shuffled<1, 2>(t403, t371);
        // complex block of 2
        const P t648 = t646 - t647;
        const P t649 = t647 + t646;
        const P t650 = shuffled<1, 0>(t649);
        // mirrored skew block of 30
        const P t651 = c[64] * t650;
        const P t652 = P(c[65], -c[65]) * t649;
        const P t653 = t651 + t652;
        const P t654 = shuffled<1, 0>(t395);
        const P t655 = shuffled<1, 0>(t379);
        // complex block of 2
        const P t656 = t654 - t655;
        const P t657 = t655 + t654;
        // mirrored skew block of 30
        const P t658 = P(-c[66], c[66]) * t657;
        const P t659 = shuffled<1, 0>(t657);
        const P t660 = c[67] * t659;
        const P t661 = t658 + t660;
        const V t662 = part<0>(t622);
        const V t663 = part<1>(t387);
        // spectrum block of 3
        const V t664 = t662 - t663;
        const V t665 = c[4] * t662;
        const V t666 = t663 + t665;
        const V t667 = part<1>(t622);
        const V t668 = c[5] * t667;
        const V t669 = t668 - t666;
        const V t670 = t666 + t668;
        const V t671 = part<0>(t387);
        // spectrum block of 3
        const V t672 = t628 + t671;
        const V t673 = c[4] * t628;
        const V t674 = t671 - t673;
        const V t675 = c[78] * t624;
        const V t676 = c[79] * t626;
        const V t677 = t675 - t676;
        const V t678 = t674 + t677;
        const V t679 = t674 - t677;
        const P t680 = shuffled<1, 3>(t605, t610);
        const P t681 = shuffled<1, 3>(t648, t653);
        // complex block of 3
        const P t682 = t680 + t681;
        const P t683 = shuffled<0, 2>(t605, t610);
        const P t684 = shuffled<0, 2>(t648, t653);
        const P t685 = t683 + t684;
        const P t686 = t680 - t681;
        const P t687 = t683 - t684;
        const P t688 = shuffled<1, 3>(t640, t645);
        const P t689 = t682 - t688;
        const P t690 = shuffled<0, 2>(t640, t645);
        const P t691 = t685 + t690;
        const P t692 = c[4] * t682;
        const P t693 = t688 + t692;
        const P t694 = c[4] * t685;
        const P t695 = t690 - t694;
        const P t696 = c[5] * t687;
        const P t697 = t696 - t693;
        const P t698 = c[5] * t686;
        const P t699 = t695 - t698;
        const P t700 = t693 + t696;
        const P t701 = t695 + t698;
        const P t702 = shuffled<1, 3>(t631, t636);
        const P t703 = shuffled<1, 3>(t656, t661);
        const P t704 = flipped<1, 0>(t703);
        // complex block of 3
        const P t705 = t702 + t704;
        const P t706 = shuffled<0, 2>(t631, t636);
        const P t707 = shuffled<0, 2>(t656, t661);
        const P t708 = t706 + t707;
        const P t709 = t702 - t704;
        const P t710 = t706 - t707;
        const P t711 = shuffled<1, 3>(t613, t618);
        const P t712 = t705 - t711;
        const P t713 = shuffled<0, 2>(t613, t618);
        const P t714 = t708 + t713;
        const P t715 = c[4] * t705;
        const P t716 = t711 + t715;
        const P t717 = c[4] * t708;
        const P t718 = t713 - t717;
        const P t719 = c[5] * t710;
        const P t720 = t719 - t716;
        const P t721 = c[5] * t709;
        const P t722 = t718 - t721;
        const P t723 = t716 + t719;
        const P t724 = t718 + t721;
        // spectrum block of 5
        const P t725 = t691 + t714;
        const P t726 = joined(t664, t672);
        const P t727 = t725 + t726;
        const P t728 = c[1] * t691;
        const P t729 = c[0] * t714;
        const P t730 = t728 - t729;
        const P t731 = t730 + t726;
        const P t732 = c[3] * t689;
        const P t733 = c[2] * t712;
        const P t734 = t732 + t733;
        const P t735 = t731 - t734;
        const P t736 = t731 + t734;
        const P t737 = c[0] * t691;
        const P t738 = t726 - t737;
        const P t739 = c[1] * t714;
        const P t740 = t738 + t739;
        const P t741 = c[2] * t689;
        const P t742 = c[3] * t712;
        const P t743 = t741 - t742;
        const P t744 = t740 - t743;
        const P t745 = t740 + t743;
        // spectrum block of 5
        const P t746 = t699 + t722;
        const P t747 = joined(t669, t678);
        const P t748 = t746 + t747;
        const P t749 = c[1] * t699;
        const P t750 = c[0] * t722;
        const P t751 = t749 - t750;
        const P t752 = t751 + t747;
        const P t753 = c[3] * t697;
        const P t754 = c[2] * t720;
        const P t755 = t753 + t754;
        const P t756 = t752 - t755;
        const P t757 = t752 + t755;
        const P t758 = c[0] * t699;
        const P t759 = t747 - t758;
        const P t760 = c[1] * t722;
        const P t761 = t759 + t760;
        const P t762 = c[2] * t697;
        const P t763 = c[3] * t720;
        const P t764 = t762 - t763;
        const P t765 = t761 - t764;
        const P t766 = t761 + t764;
        // spectrum block of 5
        const P t767 = t701 + t724;
        const V t768 = flipped<1>(t670);
        const P t769 = joined(t768, t679);
        const P t770 = t767 + t769;
        const P t771 = c[1] * t701;
        const P t772 = c[0] * t724;
        const P t773 = t771 - t772;
        const P t774 = t773 + t769;
        const P t775 = c[3] * t700;
        const P t776 = c[2] * t723;
        const P t777 = t775 + t776;
        const P t778 = t774 + t777;
        const P t779 = t774 - t777;
        const P t780 = flipped<1, 0>(t769);
        const P t781 = P(c[0], -c[0]) * t701;
        const P t782 = t780 + t781;
        const P t783 = flipped<1, 0>(t782);
        const P t784 = c[1] * t724;
        const P t785 = t783 + t784;
        const P t786 = c[3] * t723;
        const P t787 = c[2] * t700;
        const P t788 = t786 - t787;
        const P t789 = t785 - t788;
        const P t790 = t785 + t788;
        const V t791 = part<0>(t555);
        const V t792 = part<0>(t727);
        // output stage
        const V t793 = t791 - t792;
        io.out(1, t793);
        const V t794 = t791 + t792;
        io.out(60, t794);
        const V t795 = part<1>(t779);
        const V t796 = t601 + t795;
        io.out(2, t796);
        const V t797 = t601 - t795;
        io.out(59, t797);
        const V t798 = part<0>(t563);
        const V t799 = part<0>(t744);
        const V t800 = t798 + t799;
        io.out(3, t800);
        const V t801 = t798 - t799;
        io.out(58, t801);
        const V t802 = part<1>(t561);
        const V t803 = part<0>(t779);
        const V t804 = t802 + t803;
        io.out(4, t804);
        const V t805 = t802 - t803;
        io.out(57, t805);
        const V t806 = part<1>(t596);
        const V t807 = part<0>(t757);
        const V t808 = t806 + t807;
        io.out(5, t808);
        const V t809 = t806 - t807;
        io.out(56, t809);
        const V t810 = part<1>(t597);
        const V t811 = part<1>(t778);
        const V t812 = t810 - t811;
        io.out(6, t812);
        const V t813 = t810 + t811;
        io.out(55, t813);
        const V t814 = part<1>(t593);
        const V t815 = part<1>(t770);
        const V t816 = t814 + t815;
        io.out(7, t816);
        const V t817 = t814 - t815;
        io.out(54, t817);
        const V t818 = part<0>(t560);
        const V t819 = part<1>(t766);
        const V t820 = t818 - t819;
        io.out(8, t820);
        const V t821 = t818 + t819;
        io.out(53, t821);
        const V t822 = part<0>(t561);
        const V t823 = part<0>(t736);
        const V t824 = t822 - t823;
        io.out(9, t824);
        const V t825 = t822 + t823;
        io.out(52, t825);
        const V t826 = part<1>(t560);
        const V t827 = part<1>(t745);
        const V t828 = t826 - t827;
        io.out(10, t828);
        const V t829 = t826 + t827;
        io.out(51, t829);
        const V t830 = part<0>(t556);
        const V t831 = part<1>(t765);
        const V t832 = t830 - t831;
        io.out(11, t832);
        const V t833 = t830 + t831;
        io.out(50, t833);
        const V t834 = part<1>(t559);
        const V t835 = part<0>(t778);
        const V t836 = t834 - t835;
        io.out(12, t836);
        const V t837 = t834 + t835;
        io.out(49, t837);
        const V t838 = part<0>(t592);
        const V t839 = part<0>(t748);
        const V t840 = t838 - t839;
        io.out(13, t840);
        const V t841 = t838 + t839;
        io.out(48, t841);
        const V t842 = part<1>(t555);
        const V t843 = part<0>(t770);
        const V t844 = t842 + t843;
        io.out(14, t844);
        const V t845 = t842 - t843;
        io.out(47, t845);
        const V t846 = part<0>(t596);
        const V t847 = part<0>(t756);
        const V t848 = t846 - t847;
        io.out(15, t848);
        const V t849 = t846 + t847;
        io.out(46, t849);
        const V t850 = part<1>(t592);
        const V t851 = part<0>(t766);
        const V t852 = t850 - t851;
        io.out(16, t852);
        const V t853 = t850 + t851;
        io.out(45, t853);
        const V t854 = part<1>(t562);
        const V t855 = part<1>(t735);
        const V t856 = t854 - t855;
        io.out(17, t856);
        const V t857 = t854 + t855;
        io.out(44, t857);
        const V t858 = part<0>(t597);
        const V t859 = part<1>(t790);
        const V t860 = t858 + t859;
        io.out(18, t860);
        const V t861 = t858 - t859;
        io.out(43, t861);
        const V t862 = part<1>(t563);
        const V t863 = part<0>(t789);
        const V t864 = t862 + t863;
        io.out(19, t864);
        const V t865 = t862 - t863;
        io.out(42, t865);
        const V t866 = part<0>(t557);
        const V t867 = part<0>(t745);
        const V t868 = t866 - t867;
        io.out(20, t868);
        const V t869 = t866 + t867;
        io.out(41, t869);
        const V t870 = part<0>(t593);
        const V t871 = part<1>(t789);
        const V t872 = t870 - t871;
        io.out(21, t872);
        const V t873 = t870 + t871;
        io.out(40, t873);
        const V t874 = part<0>(t765);
        const V t875 = t600 - t874;
        io.out(22, t875);
        const V t876 = t600 + t874;
        io.out(39, t876);
        const V t877 = part<0>(t562);
        const V t878 = part<1>(t756);
        const V t879 = t877 + t878;
        io.out(23, t879);
        const V t880 = t877 - t878;
        io.out(38, t880);
        const V t881 = part<0>(t558);
        const V t882 = part<1>(t748);
        const V t883 = t881 + t882;
        io.out(24, t883);
        const V t884 = t881 - t882;
        io.out(37, t884);
        const V t885 = part<1>(t557);
        const V t886 = part<0>(t790);
        const V t887 = t885 - t886;
        io.out(25, t887);
        const V t888 = t885 + t886;
        io.out(36, t888);
        const V t889 = part<1>(t564);
        const V t890 = part<1>(t736);
        const V t891 = t889 + t890;
        io.out(26, t891);
        const V t892 = t889 - t890;
        io.out(35, t892);
        const V t893 = part<0>(t559);
        const V t894 = part<0>(t735);
        const V t895 = t893 + t894;
        io.out(27, t895);
        const V t896 = t893 - t894;
        io.out(34, t896);
        const V t897 = part<0>(t564);
        const V t898 = part<1>(t757);
        const V t899 = t897 - t898;
        io.out(28, t899);
        const V t900 = t897 + t898;
        io.out(33, t900);
        const V t901 = part<1>(t556);
        const V t902 = part<1>(t744);
        const V t903 = t901 - t902;
        io.out(29, t903);
        const V t904 = t901 + t902;
        io.out(32, t904);
        const V t905 = part<1>(t558);
        const V t906 = part<1>(t727);
        const V t907 = t905 + t906;
        io.out(30, t907);
        const V t908 = t905 - t906;
        io.out(31, t908);
    }
};

}  // namespace zulg
