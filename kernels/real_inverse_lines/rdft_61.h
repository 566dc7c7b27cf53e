// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 61.
// Inverse DFT to 61 real points, Rader 4, 3, 5; up to four lanes to a register.
// 134 sums, 85 differences, 137 products of registers, which do the 1301 steps of the graph, those with
// `scale` included; 213 shuffles, 66 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<61> {
    static constexpr int steps = 1301;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 3/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5,  // c[5]: -cos 2 pi 1/3
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
        0.9945218953682733,  // c[7]: cos 2 pi 1/60
        0.10452846326765347,  // c[8]: sin 2 pi 1/60
        0.7431448254773942,  // c[9]: cos 2 pi 7/60
        0.6691306063588582,  // c[10]: sin 2 pi 7/60
        0.4067366430758002,  // c[11]: cos 2 pi 11/60
        0.9135454576426009,  // c[12]: sin 2 pi 11/60
        0.20791169081775934,  // c[13]: cos 2 pi 13/60
        0.9781476007338057,  // c[14]: sin 2 pi 13/60
        0.23892325195327072,  // c[15]: -P[3] of 61
        0.15497780918795065,  // c[16]: -Q[1] of 61
        0.10340917490170637,  // c[17]: Q[3] of 61
        0.20918808865965802,  // c[18]: -P[1] of 61
        0.1053660297660444,  // c[19]: -Q[5] of 61
        0.09068761161102994,  // c[20]: Q[9] of 61
        0.2380667501964918,  // c[21]: -P[5] of 61
        0.24403592948183833,  // c[22]: -P[9] of 61
        0.23081456598926853,  // c[23]: Q[10] of 61
        0.20515266792101527,  // c[24]: Q[6] of 61
        0.12042596856560207,  // c[25]: P[10] of 61
        0.1602815043062281,  // c[26]: P[6] of 61
        0.09855050326766758,  // c[27]: Q[11] of 61
        0.09920884237904212,  // c[28]: Q[7] of 61
        0.24096799804842803,  // c[29]: -P[11] of 61
        0.2406977012179139,  // c[30]: P[7] of 61
        0.16101883855703142,  // c[31]: Q[2] of 61
        0.25591390402746017,  // c[32]: P[13] of 61
        0.20457446421174474,  // c[33]: P[2] of 61
        0.047810579406671994,  // c[34]: -Q[13] of 61
        0.17085954303793666,  // c[35]: Q[12] of 61
        0.035146745480687275,  // c[36]: Q[14] of 61
        0.19643012582250524,  // c[37]: -P[12] of 61
        0.25795829907156226,  // c[38]: -P[14] of 61
        0.23576264945389142,  // c[39]: -Q[15] of 61
        0.11042531820311542,  // c[40]: P[15] of 61
        0.22994320324173947,  // c[41]: -Q[18] of 61
        0.07154712447968609,  // c[42]: Q[16] of 61
        0.12208153447883048,  // c[43]: P[18] of 61
        0.2503173720628796,  // c[44]: P[16] of 61
        0.2578608473569129,  // c[45]: Q[4] of 61
        0.25902765669579647,  // c[46]: Q[22] of 61
        0.035854723233524656,  // c[47]: -P[4] of 61
        0.02612376015167778,  // c[48]: -P[22] of 61
        0.22194087820108896,  // c[49]: -Q[19] of 61
        0.24362915936079071,  // c[50]: -Q[23] of 61
        0.13608829619444565,  // c[51]: P[19] of 61
        0.09177478132326014,  // c[52]: P[23] of 61
        0.2602823006297202,  // c[53]: Q[20] of 61
        0.2514915834033143,  // c[54]: P[24] of 61
        0.005558934851007752,  // c[55]: -P[20] of 61
        0.0673035010610264,  // c[56]: -Q[24] of 61
        0.1154342549547329,  // c[57]: Q[25] of 61
        0.04709103298244708,  // c[58]: Q[21] of 61
        0.23335104576758062,  // c[59]: P[25] of 61
        0.256047285458026,  // c[60]: -P[21] of 61
        0.1680594978185787,  // c[61]: -P[26] of 61
        0.07049354660050404,  // c[62]: Q[8] of 61
        0.1988310412655552,  // c[63]: Q[26] of 61
        0.25061611613274265,  // c[64]: P[8] of 61
        0.21139251213699267,  // c[65]: P[28] of 61
        0.15440539602027134,  // c[66]: Q[17] of 61
        0.15195717683014903,  // c[67]: -Q[28] of 61
        0.20961095261841867,  // c[68]: -P[17] of 61
        0.0335460689418391,  // c[69]: -Q[27] of 61
        0.1192479770652986,  // c[70]: P[29] of 61
        0.25817133658934166,  // c[71]: P[27] of 61
        0.2314253610640195,  // c[72]: Q[29] of 61
        0.016666666666666666,  // c[73]: 1/60
        0.13017082793177756,  // c[74]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const Q x3_26 = io.pairs(3, 26);
        // doubled bins
        const Q t0 = c[0] * x3_26;
        const P t1 = part<0>(t0);
        const P t2 = part<1>(t0);
        const P t3 = shuffled<0, 2>(t1, t2);
        const Q x22_28 = io.pairs(22, 28);
        const Q t4 = c[0] * x22_28;
        const P t5 = part<0>(t4);
        const P t6 = part<1>(t4);
        const P t7 = shuffled<0, 2>(t5, t6);
        const Q t8 = joined(t3, t7);
        const Q x20_30 = io.pairs(20, 30);
        const Q t9 = c[0] * x20_30;
        const P t10 = part<0>(t9);
        const P t11 = part<1>(t9);
        const P t12 = shuffled<0, 2>(t10, t11);
        const Q x16_24 = io.pairs(16, 24);
        const Q t13 = c[0] * x16_24;
        const P t14 = part<0>(t13);
        const P t15 = part<1>(t13);
        const P t16 = shuffled<0, 2>(t14, t15);
        const Q t17 = joined(t12, t16);
        // real block of 5
        const Q t18 = t8 + t17;
        const Q t19 = t8 - t17;
        const Q x27_10 = io.pairs(27, 10);
        // doubled bins
        const Q t20 = c[0] * x27_10;
        const P t21 = part<0>(t20);
        const P t22 = part<1>(t20);
        const P t23 = shuffled<0, 2>(t21, t22);
        const Q x15_8 = io.pairs(15, 8);
        const Q t24 = c[0] * x15_8;
        const P t25 = part<0>(t24);
        const P t26 = part<1>(t24);
        const P t27 = shuffled<0, 2>(t25, t26);
        const Q t28 = joined(t23, t27);
        const Q x9_17 = io.pairs(9, 17);
        const Q t29 = c[0] * x9_17;
        const P t30 = part<0>(t29);
        const P t31 = part<1>(t29);
        const P t32 = shuffled<0, 2>(t30, t31);
        const Q x5_23 = io.pairs(5, 23);
        const Q t33 = c[0] * x5_23;
        const P t34 = part<0>(t33);
        const P t35 = part<1>(t33);
        const P t36 = shuffled<0, 2>(t34, t35);
        const Q t37 = joined(t32, t36);
        // real block of 5
        const Q t38 = t28 + t37;
        const Q t39 = t28 - t37;
        const Q t40 = t18 + t38;
        const Q x1_29 = io.pairs(1, 29);
        // doubled bins
        const Q t41 = c[0] * x1_29;
        const P t42 = part<0>(t41);
        const P t43 = part<1>(t41);
        const P t44 = shuffled<0, 2>(t42, t43);
        const Q x13_11 = io.pairs(13, 11);
        const Q t45 = c[0] * x13_11;
        const P t46 = part<0>(t45);
        const P t47 = part<1>(t45);
        const P t48 = shuffled<0, 2>(t46, t47);
        const Q t49 = joined(t44, t48);
        // real block of 5
        const Q t50 = t40 + t49;
        const Q t51 = c[1] * t18;
        const Q t52 = c[2] * t38;
        const Q t53 = t51 - t52;
        const Q t54 = t53 + t49;
        const Q t55 = c[3] * t39;
        const Q t56 = c[4] * t19;
        const Q t57 = t55 - t56;
        const Q t58 = c[2] * t18;
        const Q t59 = t49 - t58;
        const Q t60 = c[1] * t38;
        const Q t61 = t59 + t60;
        const Q t62 = c[3] * t19;
        const Q t63 = c[4] * t39;
        const Q t64 = t62 + t63;
        const Q x19_2 = io.pairs(19, 2);
        // doubled bins
        const Q t65 = c[0] * x19_2;
        const P t66 = part<0>(t65);
        const P t67 = part<1>(t65);
        const P t68 = shuffled<0, 2>(t66, t67);
        const Q x25_7 = io.pairs(25, 7);
        const Q t69 = c[0] * x25_7;
        const P t70 = part<0>(t69);
        const P t71 = part<1>(t69);
        const P t72 = shuffled<0, 2>(t70, t71);
        // real block of 5
        const P t73 = t68 + t72;
        const P t74 = t68 - t72;
        const Q x12_18 = io.pairs(12, 18);
        // doubled bins
        const Q t75 = c[0] * x12_18;
        const P t76 = part<0>(t75);
        const P t77 = part<1>(t75);
        const P t78 = shuffled<0, 2>(t76, t77);
        const Q x4_6 = io.pairs(4, 6);
        const Q t79 = c[0] * x4_6;
        const P t80 = part<0>(t79);
        const P t81 = part<1>(t79);
        const P t82 = shuffled<0, 2>(t80, t81);
        // real block of 5
        const P t83 = t78 + t82;
        const P t84 = t78 - t82;
        const P t85 = t73 + t83;
        const Q x14_21 = io.pairs(14, 21);
        // doubled bins
        const Q t86 = c[0] * x14_21;
        const P t87 = part<0>(t86);
        const P t88 = part<1>(t86);
        const P t89 = shuffled<0, 2>(t87, t88);
        // real block of 5
        const P t90 = t85 + t89;
        const P t91 = c[1] * t73;
        const P t92 = c[2] * t83;
        const P t93 = t91 - t92;
        const P t94 = t93 + t89;
        const P t95 = c[3] * t84;
        const P t96 = c[4] * t74;
        const P t97 = t95 - t96;
        const P t98 = c[2] * t73;
        const P t99 = t89 - t98;
        const P t100 = c[1] * t83;
        const P t101 = t99 + t100;
        const P t102 = c[3] * t74;
        const P t103 = c[4] * t84;
        const P t104 = t102 + t103;
        const P t105 = part<1>(t50);
        const P t106 = part<0>(t50);
        const P t107 = shuffled<0, 3>(t105, t106);
        // real block of 3
        const P t108 = t90 + t107;
        const P t109 = shuffled<0, 3>(t107, t90);
        const P t110 = shuffled<0, 3>(t90, t107);
        const P t111 = t109 - t110;
        const P t112 = shuffled<0, 3>(t106, t105);
        const P t113 = t108 + t112;
        const P t114 = c[5] * t108;
        const P t115 = t112 - t114;
        const V t116 = part<0>(t113);
        const V t117 = part<1>(t113);
        // real block of 2
        const V t118 = t116 + t117;
        const V t119 = t116 - t117;
        // real block of 3
        const P t120 = c[6] * t111;
        const P t121 = shuffled<0, 2>(t115, t120);
        const P t122 = shuffled<1, 3>(t115, t120);
        // complex block of 2
        const P t123 = t121 + t122;
        const P t124 = shuffled<0, 3>(t121, t122);
        const P t125 = shuffled<0, 3>(t122, t121);
        const P t126 = t124 - t125;
        const Q t127 = shuffled<0, 4, 2, 6>(t54, t57);
        const Q t128 = shuffled<0, 4, 2, 6>(t61, t64);
        const Q t129 = shuffled<2, 3, 6, 7>(t127, t128);
        const P t130 = shuffled<0, 2>(t94, t97);
        const P t131 = shuffled<0, 2>(t101, t104);
        const Q t132 = joined(t130, t131);
        // complex block of 3
        const Q t133 = t129 + t132;
        const Q t134 = flipped<0, 0, 0, 1>(t129);
        const Q t135 = flipped<0, 0, 0, 1>(t132);
        const Q t136 = t134 - t135;
        const Q t137 = shuffled<0, 1, 4, 5>(t127, t128);
        const Q t138 = t133 + t137;
        const Q t139 = flipped<0, 0, 0, 1>(t137);
        const Q t140 = Q(c[5], c[5], c[5], -c[5]) * t133;
        const Q t141 = t139 - t140;
        const Q t142 = Q(-c[6], c[6], -c[6], c[6]) * t136;
        const Q t143 = shuffled<1, 0, 3, 2>(t142);
        const Q t144 = t141 + t143;
        const Q t145 = t141 - t143;
        const P t146 = shuffled<1, 3>(t94, t97);
        const P t147 = shuffled<1, 3>(t101, t104);
        const Q t148 = joined(t146, t147);
        const Q t149 = shuffled<1, 5, 3, 7>(t54, t57);
        const Q t150 = shuffled<1, 5, 3, 7>(t61, t64);
        const Q t151 = shuffled<0, 1, 4, 5>(t149, t150);
        // complex block of 3
        const Q t152 = t148 + t151;
        const Q t153 = flipped<0, 0, 0, 1>(t148);
        const Q t154 = flipped<0, 0, 0, 1>(t151);
        const Q t155 = t153 - t154;
        const Q t156 = shuffled<2, 3, 6, 7>(t149, t150);
        const Q t157 = t152 + t156;
        const Q t158 = flipped<0, 0, 0, 1>(t156);
        const Q t159 = Q(c[5], c[5], c[5], -c[5]) * t152;
        const Q t160 = t158 - t159;
        const Q t161 = Q(-c[6], c[6], -c[6], c[6]) * t155;
        const Q t162 = shuffled<1, 0, 3, 2>(t161);
        const Q t163 = t160 + t162;
        const Q t164 = t160 - t162;
        // complex block of 2
        const Q t165 = t138 + t157;
        const Q t166 = flipped<0, 0, 0, 1>(t138);
        const Q t167 = flipped<0, 0, 0, 1>(t157);
        const Q t168 = t166 - t167;
        // complex block of 2
        const Q t169 = t144 + t163;
        const Q t170 = t144 - t163;
        // complex block of 2
        const Q t171 = t145 + t164;
        const Q t172 = t145 - t164;
        const P t173 = shuffled<1, 3>(t46, t2);
        const P t174 = shuffled<1, 3>(t5, t35);
        const Q t175 = joined(t173, t174);
        const P t176 = shuffled<1, 3>(t87, t6);
        const P t177 = shuffled<1, 3>(t66, t31);
        const Q t178 = joined(t176, t177);
        // real block of 3, multiplier 2
        const Q t179 = t175 - t178;
        const Q t180 = t178 + t175;
        const P t181 = shuffled<1, 3>(t42, t67);
        const P t182 = shuffled<1, 3>(t1, t81);
        const P t183 = flipped<1, 1>(t182);
        const Q t184 = joined(t181, t183);
        const Q t185 = t179 + t184;
        const Q t186 = flipped<0, 0, 1, 1>(t184);
        const Q t187 = Q(-c[5], -c[5], c[5], c[5]) * t179;
        const Q t188 = t186 + t187;
        const P t189 = shuffled<1, 3>(t34, t22);
        const P t190 = shuffled<1, 3>(t25, t11);
        const Q t191 = joined(t189, t190);
        const P t192 = shuffled<1, 3>(t80, t26);
        const P t193 = shuffled<1, 3>(t76, t15);
        const Q t194 = joined(t192, t193);
        // real block of 3, multiplier 2
        const Q t195 = t191 + t194;
        const Q t196 = shuffled<0, 1, 6, 7>(t194, t191);
        const Q t197 = shuffled<0, 1, 6, 7>(t191, t194);
        const Q t198 = t196 - t197;
        const Q t199 = flipped<1, 1, 0, 0>(t195);
        const P t200 = shuffled<1, 3>(t30, t77);
        const P t201 = shuffled<1, 3>(t21, t71);
        const P t202 = flipped<1, 0>(t201);
        const Q t203 = joined(t200, t202);
        const Q t204 = t199 + t203;
        const Q t205 = flipped<0, 0, 1, 0>(t203);
        const Q t206 = Q(c[5], c[5], c[5], -c[5]) * t195;
        const Q t207 = t205 + t206;
        const P t208 = shuffled<1, 3>(t14, t43);
        const P t209 = shuffled<1, 3>(t70, t47);
        // real block of 3, multiplier 2
        const P t210 = t208 + t209;
        const P t211 = shuffled<0, 3>(t208, t209);
        const P t212 = shuffled<0, 3>(t209, t208);
        const P t213 = t211 - t212;
        const P t214 = shuffled<1, 3>(t10, t88);
        const P t215 = t210 + t214;
        const P t216 = P(-c[5], c[5]) * t210;
        const P t217 = flipped<0, 1>(t214);
        const P t218 = t216 + t217;
        const P t219 = part<1>(t185);
        const P t220 = flipped<0, 1>(t215);
        // real block of 5, multiplier 3
        const P t221 = t219 + t220;
        const P t222 = t219 - t220;
        const P t223 = part<1>(t204);
        const P t224 = part<0>(t204);
        const P t225 = t223 + t224;
        const P t226 = t223 - t224;
        const P t227 = t221 + t225;
        const P t228 = part<0>(t185);
        const P t229 = t227 + t228;
        const P t230 = c[2] * t221;
        const P t231 = t228 - t230;
        const P t232 = c[1] * t225;
        const P t233 = t231 + t232;
        const P t234 = c[3] * t222;
        const P t235 = c[4] * t226;
        const P t236 = t234 + t235;
        const P t237 = c[1] * t221;
        const P t238 = c[2] * t225;
        const P t239 = t237 - t238;
        const P t240 = t239 + t228;
        const P t241 = c[3] * t226;
        const P t242 = c[4] * t222;
        const P t243 = t241 - t242;
        // real block of 3, multiplier 2
        const P t244 = c[6] * t213;
        const P t245 = shuffled<0, 2>(t218, t244);
        const P t246 = shuffled<1, 3>(t218, t244);
        const Q t247 = joined(t245, t246);
        // real block of 3, multiplier 2
        const Q t248 = Q(c[6], c[6], -c[6], c[6]) * t180;
        const Q t249 = shuffled<0, 4, 2, 6>(t188, t248);
        const Q t250 = flipped<0, 0, 1, 0>(t248);
        const Q t251 = shuffled<1, 5, 3, 7>(t188, t250);
        const Q t252 = shuffled<2, 3, 6, 7>(t249, t251);
        // complex block of 5, multiplier 3
        const Q t253 = t247 - t252;
        const Q t254 = flipped<0, 1, 0, 0>(t252);
        const Q t255 = flipped<0, 1, 0, 0>(t247);
        const Q t256 = t254 + t255;
        // real block of 3, multiplier 2
        const Q t257 = c[6] * t198;
        const Q t258 = shuffled<0, 4, 3, 7>(t207, t257);
        const Q t259 = shuffled<0, 4, 2, 6>(t207, t257);
        const Q t260 = shuffled<1, 5, 3, 7>(t207, t257);
        const Q t261 = shuffled<2, 3, 4, 5>(t259, t260);
        const Q t262 = flipped<1, 0, 0, 0>(t261);
        // complex block of 5, multiplier 3
        const Q t263 = t258 + t262;
        const Q t264 = flipped<0, 1, 0, 0>(t258);
        const Q t265 = flipped<1, 0, 1, 1>(t262);
        const Q t266 = t264 + t265;
        const Q t267 = t253 + t263;
        const Q t268 = shuffled<0, 1, 4, 5>(t249, t251);
        const Q t269 = t267 + t268;
        const Q t270 = c[1] * t253;
        const Q t271 = c[2] * t263;
        const Q t272 = t270 - t271;
        const Q t273 = t272 + t268;
        const Q t274 = Q(-c[4], c[4], c[4], c[4]) * t256;
        const Q t275 = Q(c[3], -c[3], c[3], c[3]) * t266;
        const Q t276 = t274 + t275;
        const Q t277 = shuffled<1, 0, 3, 2>(t276);
        const Q t278 = flipped<0, 1, 1, 0>(t277);
        const Q t279 = t273 + t278;
        const Q t280 = t273 - t278;
        const Q t281 = c[2] * t253;
        const Q t282 = t268 - t281;
        const Q t283 = c[1] * t263;
        const Q t284 = t282 + t283;
        const Q t285 = c[4] * t266;
        const Q t286 = Q(c[3], c[3], -c[3], -c[3]) * t256;
        const Q t287 = t285 + t286;
        const Q t288 = shuffled<1, 0, 3, 2>(t287);
        const Q t289 = flipped<0, 0, 0, 1>(t288);
        const Q t290 = t284 + t289;
        const Q t291 = t284 - t289;
        const P t292 = part<1>(t291);
        const P t293 = shuffled<1, 3>(t240, t243);
        const Q t294 = joined(t292, t293);
        // skew block of 30
        const Q t295 = Q(c[7], c[7], c[4], c[4]) * t294;
        const Q t296 = shuffled<1, 0, 3, 2>(t294);
        const Q t297 = Q(c[8], -c[8], -c[1], c[1]) * t296;
        const Q t298 = t295 + t297;
        const P t299 = part<0>(t291);
        const P t300 = shuffled<0, 2>(t240, t243);
        const Q t301 = joined(t299, t300);
        // complex block of 2
        const Q t302 = t301 + t298;
        const Q t303 = flipped<0, 0, 0, 1>(t301);
        const Q t304 = flipped<0, 0, 0, 1>(t298);
        const Q t305 = t303 - t304;
        const Q t306 = shuffled<2, 3, 6, 7>(t269, t279);
        // skew block of 30
        const Q t307 = Q(c[6], c[6], c[9], c[9]) * t306;
        const Q t308 = shuffled<1, 0, 3, 2>(t306);
        const Q t309 = Q(-c[5], c[5], c[10], -c[10]) * t308;
        const Q t310 = t307 + t309;
        const Q t311 = shuffled<0, 1, 4, 5>(t269, t279);
        // complex block of 2
        const Q t312 = t311 + t310;
        const Q t313 = flipped<0, 1, 0, 0>(t311);
        const Q t314 = flipped<0, 1, 0, 0>(t310);
        const Q t315 = t313 - t314;
        const P t316 = shuffled<1, 3>(t233, t236);
        const P t317 = part<1>(t290);
        const Q t318 = joined(t316, t317);
        // skew block of 30
        const Q t319 = Q(c[3], c[3], c[11], c[11]) * t318;
        const Q t320 = shuffled<1, 0, 3, 2>(t318);
        const Q t321 = Q(-c[2], c[2], -c[12], c[12]) * t320;
        const Q t322 = t319 + t321;
        const P t323 = shuffled<0, 2>(t233, t236);
        const P t324 = part<0>(t290);
        const Q t325 = joined(t323, t324);
        // complex block of 2
        const Q t326 = t325 + t322;
        const Q t327 = shuffled<0, 5, 2, 7>(t325, t322);
        const Q t328 = shuffled<0, 5, 2, 7>(t322, t325);
        const Q t329 = t327 - t328;
        const P t330 = part<1>(t280);
        // skew block of 30
        const P t331 = c[13] * t330;
        const P t332 = shuffled<1, 0>(t330);
        const P t333 = P(c[14], -c[14]) * t332;
        const P t334 = t331 + t333;
        const P t335 = part<0>(t280);
        // complex block of 2
        const P t336 = t335 + t334;
        const P t337 = t335 - t334;
        const V x0r = io.re(0);
        // spectrum block of 61
        const V t338 = c[73] * t118;
        const V t339 = x0r - t338;
        const Q t340 = shuffled<1, 0, 3, 2>(t302);
        const Q t341 = shuffled<2, 3, 4, 5>(t340, t302);
        const Q t342 = Q(-c[15], c[15], -c[16], c[16]) * t341;
        const Q t343 = shuffled<1, 0, 3, 2>(t341);
        const Q t344 = Q(c[17], c[17], c[18], c[18]) * t343;
        const Q t345 = t342 + t344;
        const Q t346 = shuffled<0, 1, 4, 5>(t312, t326);
        const Q t347 = Q(c[19], c[19], c[20], c[20]) * t346;
        const Q t348 = shuffled<1, 0, 3, 2>(t346);
        const Q t349 = Q(c[21], -c[21], -c[22], c[22]) * t348;
        const Q t350 = t347 + t349;
        const P t351 = part<1>(t168);
        const Q t352 = joined(t126, t351);
        const Q t353 = shuffled<1, 0, 3, 2>(t352);
        const Q t354 = Q(c[23], c[23], c[24], c[24]) * t353;
        const Q t355 = Q(c[25], -c[25], c[26], -c[26]) * t352;
        const Q t356 = t354 + t355;
        const Q t357 = shuffled<2, 3, 6, 7>(t326, t312);
        const Q t358 = Q(c[27], c[27], c[28], c[28]) * t357;
        const Q t359 = shuffled<1, 0, 3, 2>(t357);
        const Q t360 = Q(-c[29], c[29], -c[30], c[30]) * t359;
        const Q t361 = t358 + t360;
        const P t362 = part<0>(t170);
        const Q t363 = joined(t362, t336);
        const Q t364 = shuffled<1, 0, 3, 2>(t363);
        const Q t365 = Q(-c[31], c[31], c[32], c[32]) * t364;
        const Q t366 = Q(c[33], c[33], c[34], -c[34]) * t363;
        const Q t367 = t365 + t366;
        const Q t368 = shuffled<0, 1, 6, 7>(t165, t170);
        const Q t369 = shuffled<1, 0, 3, 2>(t368);
        const Q t370 = Q(c[35], c[35], c[36], c[36]) * t369;
        const Q t371 = Q(c[37], -c[37], c[38], -c[38]) * t368;
        const Q t372 = t370 + t371;
        const P t373 = P(-c[39], c[39]) * t229;
        const P t374 = shuffled<1, 0>(t229);
        const P t375 = c[40] * t374;
        const P t376 = t373 + t375;
        const Q t377 = shuffled<0, 1, 6, 7>(t168, t169);
        const Q t378 = shuffled<1, 0, 3, 2>(t377);
        const Q t379 = Q(-c[41], c[41], c[42], c[42]) * t378;
        const Q t380 = Q(c[43], c[43], c[44], -c[44]) * t377;
        const Q t381 = t379 + t380;
        const Q t382 = shuffled<2, 3, 4, 5>(t171, t172);
        const Q t383 = shuffled<1, 0, 3, 2>(t382);
        const Q t384 = Q(c[45], c[45], c[46], c[46]) * t383;
        const Q t385 = Q(c[47], -c[47], c[48], -c[48]) * t382;
        const Q t386 = t384 + t385;
        const Q t387 = shuffled<2, 3, 6, 7>(t329, t315);
        const Q t388 = Q(-c[49], c[49], -c[50], c[50]) * t387;
        const Q t389 = shuffled<1, 0, 3, 2>(t387);
        const Q t390 = Q(c[51], c[51], c[52], c[52]) * t389;
        const Q t391 = t388 + t390;
        const P t392 = shuffled<1, 0>(t123);
        const P t393 = part<1>(t165);
        const Q t394 = joined(t392, t393);
        const Q t395 = Q(c[53], c[53], c[54], c[54]) * t394;
        const Q t396 = shuffled<1, 0, 3, 2>(t394);
        const Q t397 = Q(-c[55], c[55], -c[56], c[56]) * t396;
        const Q t398 = t395 + t397;
        const Q t399 = shuffled<0, 1, 4, 5>(t315, t329);
        const Q t400 = Q(c[57], -c[57], c[58], c[58]) * t399;
        const Q t401 = shuffled<1, 0, 3, 2>(t399);
        const Q t402 = Q(c[59], c[59], -c[60], c[60]) * t401;
        const Q t403 = t400 + t402;
        const Q t404 = shuffled<1, 0, 3, 2>(t171);
        const Q t405 = shuffled<2, 3, 4, 5>(t172, t404);
        const Q t406 = Q(-c[61], c[61], c[62], c[62]) * t405;
        const Q t407 = shuffled<1, 0, 3, 2>(t405);
        const Q t408 = Q(c[63], c[63], c[64], -c[64]) * t407;
        const Q t409 = t406 + t408;
        const P t410 = part<0>(t169);
        const Q t411 = joined(t410, t337);
        const Q t412 = Q(c[65], c[65], c[66], c[66]) * t411;
        const Q t413 = shuffled<1, 0, 3, 2>(t411);
        const Q t414 = Q(-c[67], c[67], -c[68], c[68]) * t413;
        const Q t415 = t412 + t414;
        const Q t416 = shuffled<1, 0, 3, 2>(t305);
        const Q t417 = shuffled<2, 3, 4, 5>(t305, t416);
        const Q t418 = Q(-c[69], c[69], c[70], c[70]) * t417;
        const Q t419 = shuffled<1, 0, 3, 2>(t417);
        const Q t420 = Q(c[71], c[71], c[72], -c[72]) * t419;
        const Q t421 = t418 + t420;
        const V t422 = c[74] * t119;
        // spectrum block of 2
        const V t423 = t339 + t422;
        const V t424 = t339 - t422;
        const P t425 = joined(t423, t424);
        // spectrum block of 2
        const P t426 = t425 + t376;
        const P t427 = t425 - t376;
        const Q t428 = flipped<0, 1, 0, 0>(t409);
        const Q t429 = flipped<0, 1, 0, 0>(t386);
        // complex block of 2
        const Q t430 = t428 - t429;
        const Q t431 = t409 + t386;
        const Q t432 = flipped<0, 0, 0, 1>(t361);
        // complex block of 2
        const Q t433 = t391 + t432;
        const Q t434 = t391 - t432;
        // complex block of 2
        const Q t435 = t430 + t433;
        const Q t436 = t430 - t433;
        const Q t437 = shuffled<1, 5, 3, 7>(t434, t431);
        const Q t438 = shuffled<0, 4, 2, 6>(t431, t434);
        const Q t439 = flipped<0, 0, 1, 0>(t438);
        // complex block of 2
        const Q t440 = t437 - t439;
        const Q t441 = flipped<0, 0, 1, 0>(t437);
        const Q t442 = t441 + t438;
        const Q t443 = flipped<0, 1, 0, 0>(t372);
        // complex block of 2
        const Q t444 = t381 - t443;
        const Q t445 = flipped<0, 1, 0, 0>(t381);
        const Q t446 = t445 + t372;
        // complex block of 2
        const Q t447 = t421 + t345;
        const Q t448 = flipped<0, 0, 0, 1>(t421);
        const Q t449 = flipped<0, 0, 0, 1>(t345);
        const Q t450 = t448 - t449;
        const Q t451 = flipped<0, 0, 0, 1>(t447);
        // complex block of 2
        const Q t452 = t444 + t451;
        const Q t453 = t444 - t451;
        const Q t454 = shuffled<1, 5, 3, 7>(t450, t446);
        const Q t455 = shuffled<0, 4, 2, 6>(t446, t450);
        const Q t456 = flipped<0, 0, 1, 0>(t455);
        // complex block of 2
        const Q t457 = t454 - t456;
        const Q t458 = flipped<0, 0, 1, 0>(t454);
        const Q t459 = t458 + t455;
        const Q t460 = flipped<0, 1, 0, 0>(t356);
        // complex block of 2
        const Q t461 = t398 + t460;
        const Q t462 = flipped<1, 1, 1, 0>(t460);
        const Q t463 = flipped<0, 0, 0, 1>(t398);
        const Q t464 = t462 + t463;
        const Q t465 = flipped<0, 1, 0, 0>(t403);
        const Q t466 = flipped<1, 0, 0, 1>(t350);
        // complex block of 2
        const Q t467 = t465 + t466;
        const Q t468 = flipped<1, 0, 1, 1>(t466);
        const Q t469 = t403 + t468;
        const Q t470 = flipped<0, 0, 0, 1>(t461);
        // complex block of 2
        const Q t471 = t467 + t470;
        const Q t472 = flipped<0, 0, 0, 1>(t467);
        const Q t473 = t461 - t472;
        const Q t474 = shuffled<1, 0, 3, 2>(t469);
        const Q t475 = flipped<0, 0, 1, 0>(t474);
        // complex block of 2
        const Q t476 = t464 - t475;
        const Q t477 = t464 + t475;
        const Q t478 = flipped<0, 0, 1, 0>(t367);
        // complex block of 2
        const Q t479 = t415 + t478;
        const Q t480 = flipped<0, 1, 0, 0>(t415);
        const Q t481 = flipped<1, 0, 1, 1>(t478);
        const Q t482 = t480 + t481;
        const Q t483 = shuffled<2, 3, 4, 5>(t479, t482);
        const Q t484 = shuffled<1, 0, 3, 2>(t482);
        const Q t485 = shuffled<0, 1, 6, 7>(t479, t484);
        const Q t486 = flipped<0, 1, 0, 1>(t485);
        // complex block of 2
        const Q t487 = t483 + t486;
        const Q t488 = flipped<1, 0, 0, 0>(t483);
        const Q t489 = flipped<0, 1, 1, 1>(t486);
        const Q t490 = t488 + t489;
        const Q t491 = shuffled<0, 4, 2, 6>(t452, t457);
        const Q t492 = shuffled<0, 4, 2, 6>(t453, t459);
        const Q t493 = shuffled<2, 3, 6, 7>(t491, t492);
        const Q t494 = shuffled<0, 4, 2, 6>(t435, t440);
        const Q t495 = shuffled<0, 4, 2, 6>(t436, t442);
        const Q t496 = shuffled<0, 1, 4, 5>(t494, t495);
        const Q t497 = flipped<0, 0, 0, 1>(t496);
        // complex block of 3, multiplier 2
        const Q t498 = t493 + t497;
        const Q t499 = shuffled<0, 4, 2, 6>(t471, t476);
        const Q t500 = shuffled<0, 4, 2, 6>(t473, t477);
        const Q t501 = shuffled<2, 3, 6, 7>(t499, t500);
        const Q t502 = c[5] * t498;
        const Q t503 = t501 - t502;
        const Q t504 = shuffled<1, 5, 3, 7>(t452, t457);
        const Q t505 = shuffled<1, 5, 3, 7>(t453, t459);
        const Q t506 = shuffled<2, 3, 6, 7>(t504, t505);
        const Q t507 = shuffled<1, 5, 3, 7>(t435, t440);
        const Q t508 = shuffled<1, 5, 3, 7>(t436, t442);
        const Q t509 = shuffled<0, 1, 4, 5>(t507, t508);
        const Q t510 = t506 + t509;
        const Q t511 = c[6] * t510;
        const Q t512 = t503 + t511;
        const P t513 = part<0>(t487);
        const P t514 = part<1>(t487);
        const P t515 = shuffled<0, 2>(t513, t514);
        const P t516 = part<0>(t490);
        const P t517 = part<1>(t490);
        const P t518 = shuffled<0, 2>(t516, t517);
        const Q t519 = joined(t515, t518);
        const Q t520 = shuffled<2, 3, 6, 7>(t494, t495);
        // complex block of 3, multiplier 2
        const Q t521 = t519 + t520;
        const Q t522 = shuffled<0, 1, 4, 5>(t491, t492);
        const Q t523 = Q(c[5], c[5], c[5], -c[5]) * t521;
        const Q t524 = t522 - t523;
        const Q t525 = shuffled<2, 3, 6, 7>(t507, t508);
        const P t526 = shuffled<1, 3>(t513, t514);
        const P t527 = shuffled<1, 3>(t516, t517);
        const P t528 = flipped<1, 0>(t527);
        const Q t529 = joined(t526, t528);
        const Q t530 = t525 - t529;
        const Q t531 = Q(c[6], c[6], c[6], -c[6]) * t530;
        const Q t532 = t524 - t531;
        // spectrum block of 5, multiplier 2
        const Q t533 = c[1] * t532;
        const P t534 = part<0>(t533);
        const P t535 = part<0>(t512);
        const P t536 = c[2] * t535;
        const P t537 = t534 - t536;
        const Q t538 = joined(t426, t427);
        const Q t539 = shuffled<0, 1, 4, 5>(t499, t500);
        // spectrum block of 3, multiplier 2
        const Q t540 = c[5] * t539;
        const Q t541 = t538 - t540;
        const Q t542 = shuffled<1, 5, 3, 7>(t471, t476);
        const Q t543 = shuffled<1, 5, 3, 7>(t473, t477);
        const Q t544 = shuffled<0, 1, 4, 5>(t542, t543);
        const Q t545 = c[6] * t544;
        const Q t546 = t541 - t545;
        const P t547 = part<0>(t546);
        // spectrum block of 5, multiplier 2
        const Q t548 = c[2] * t532;
        const P t549 = part<0>(t548);
        const P t550 = t547 - t549;
        const P t551 = part<1>(t533);
        const V t552 = part<0>(t551);
        const P t553 = part<1>(t512);
        const V t554 = part<0>(t553);
        // spectrum block of 5, multiplier 2
        const V t555 = c[2] * t554;
        const V t556 = t552 - t555;
        const P t557 = part<1>(t546);
        const V t558 = part<0>(t557);
        const P t559 = part<1>(t548);
        const V t560 = part<0>(t559);
        const V t561 = t558 - t560;
        // spectrum block of 3, multiplier 2
        const Q t562 = t539 + t538;
        const Q t563 = t541 + t545;
        const Q t564 = flipped<0, 0, 1, 0>(t529);
        const Q t565 = flipped<0, 0, 1, 0>(t525);
        // complex block of 3, multiplier 2
        const Q t566 = t564 + t565;
        const Q t567 = t519 - t520;
        const Q t568 = shuffled<0, 1, 4, 5>(t504, t505);
        const Q t569 = flipped<0, 0, 1, 0>(t566);
        const Q t570 = t568 - t569;
        const Q t571 = flipped<0, 0, 0, 1>(t522);
        const Q t572 = t521 + t571;
        const Q t573 = Q(c[5], c[5], -c[5], c[5]) * t566;
        const Q t574 = t573 + t568;
        const Q t575 = c[6] * t567;
        const Q t576 = t574 + t575;
        const Q t577 = t574 - t575;
        const Q t578 = flipped<0, 0, 0, 1>(t531);
        const Q t579 = flipped<0, 0, 0, 1>(t524);
        const Q t580 = t578 + t579;
        // complex block of 3, multiplier 2
        const Q t581 = t509 - t506;
        const Q t582 = t493 - t497;
        const Q t583 = shuffled<2, 3, 6, 7>(t542, t543);
        const Q t584 = flipped<0, 0, 1, 0>(t583);
        const Q t585 = t581 + t584;
        const Q t586 = t498 + t501;
        const Q t587 = Q(c[5], c[5], -c[5], c[5]) * t581;
        const Q t588 = t583 - t587;
        const Q t589 = flipped<0, 0, 1, 0>(t588);
        const Q t590 = c[6] * t582;
        const Q t591 = t589 + t590;
        const Q t592 = flipped<0, 0, 1, 0>(t590);
        const Q t593 = t588 - t592;
        const Q t594 = t503 - t511;
        // spectrum block of 5, multiplier 2
        const Q t595 = t572 + t586;
        const Q t596 = t595 + t562;
        io.out(1, 50, 60, 11, t596);
        const Q t597 = c[1] * t572;
        const Q t598 = c[2] * t586;
        const Q t599 = t597 - t598;
        const Q t600 = t599 + t562;
        const Q t601 = c[4] * t570;
        const Q t602 = c[3] * t585;
        const Q t603 = t601 + t602;
        const Q t604 = t600 - t603;
        io.out(20, 24, 41, 37, t604);
        const Q t605 = t600 + t603;
        io.out(58, 33, 3, 28, t605);
        const Q t606 = c[2] * t572;
        const Q t607 = t562 - t606;
        const Q t608 = c[1] * t586;
        const Q t609 = t607 + t608;
        const Q t610 = c[3] * t570;
        const Q t611 = c[4] * t585;
        const Q t612 = t610 - t611;
        const Q t613 = t609 - t612;
        io.out(34, 53, 27, 8, t613);
        const Q t614 = t609 + t612;
        io.out(9, 23, 52, 38, t614);
        // spectrum block of 5, multiplier 2
        const Q t615 = t580 + t594;
        const Q t616 = t615 + t563;
        io.out(13, 40, 48, 21, t616);
        const Q t617 = c[1] * t580;
        const Q t618 = c[2] * t594;
        const Q t619 = t617 - t618;
        const Q t620 = t619 + t563;
        const Q t621 = c[4] * t577;
        const Q t622 = Q(c[3], c[3], -c[3], c[3]) * t593;
        const Q t623 = t621 + t622;
        const Q t624 = t620 - t623;
        io.out(16, 7, 45, 54, t624);
        const Q t625 = t620 + t623;
        io.out(22, 2, 39, 59, t625);
        const Q t626 = c[2] * t580;
        const Q t627 = t563 - t626;
        const Q t628 = c[1] * t594;
        const Q t629 = t627 + t628;
        const Q t630 = c[3] * t577;
        const Q t631 = Q(c[4], c[4], -c[4], c[4]) * t593;
        const Q t632 = t630 - t631;
        const Q t633 = t629 - t632;
        io.out(15, 18, 46, 43, t633);
        const Q t634 = t629 + t632;
        io.out(56, 55, 5, 6, t634);
        const Q t635 = flipped<0, 0, 0, 1>(t532);
        // spectrum block of 5, multiplier 2
        const Q t636 = t512 + t635;
        const Q t637 = t636 + t546;
        io.out(47, 32, 14, 29, t637);
        const V t638 = part<1>(t557);
        const V t639 = part<1>(t551);
        // spectrum block of 5, multiplier 2
        const V t640 = t638 - t639;
        const P t641 = joined(t556, t640);
        const Q t642 = joined(t537, t641);
        const V t643 = part<1>(t553);
        const V t644 = -c[2] * t643;
        const P t645 = joined(t558, t644);
        const Q t646 = joined(t547, t645);
        // spectrum block of 5, multiplier 2
        const Q t647 = t642 + t646;
        const Q t648 = c[4] * t576;
        const Q t649 = c[3] * t591;
        const Q t650 = t648 + t649;
        const Q t651 = t647 - t650;
        io.out(25, 30, 36, 31, t651);
        const Q t652 = t647 + t650;
        io.out(42, 26, 19, 35, t652);
        const V t653 = part<1>(t559);
        // spectrum block of 5, multiplier 2
        const V t654 = c[1] * t643;
        const V t655 = t653 + t654;
        const P t656 = joined(t561, t655);
        const Q t657 = joined(t550, t656);
        // spectrum block of 5, multiplier 2
        const P t658 = c[1] * t535;
        // spectrum block of 5, multiplier 2
        const V t659 = c[1] * t554;
        const P t660 = joined(t659, t638);
        const Q t661 = joined(t658, t660);
        // spectrum block of 5, multiplier 2
        const Q t662 = t657 + t661;
        const Q t663 = c[3] * t576;
        const Q t664 = c[4] * t591;
        const Q t665 = t663 - t664;
        const Q t666 = t662 - t665;
        io.out(12, 51, 49, 10, t666);
        const Q t667 = t662 + t665;
        io.out(57, 44, 4, 17, t667);
        // spectrum block of 61
        const V t668 = x0r + t118;
        io.out(0, t668);
    }
};

}  // namespace zulg
