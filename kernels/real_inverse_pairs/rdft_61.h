// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 61.
// Inverse DFT to 61 real points, Rader 4, 3, 5; two lanes to a register.
// 239 sums, 147 differences, 242 products of registers, which do the 1301 steps of the graph, those with
// `scale` included; 179 shuffles, 35 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<61> {
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
        0.15497780918795065,  // c[15]: -Q[1] of 61
        0.20918808865965802,  // c[16]: -P[1] of 61
        0.20457446421174474,  // c[17]: P[2] of 61
        0.16101883855703142,  // c[18]: Q[2] of 61
        0.10340917490170637,  // c[19]: Q[3] of 61
        0.23892325195327072,  // c[20]: -P[3] of 61
        0.2578608473569129,  // c[21]: Q[4] of 61
        0.035854723233524656,  // c[22]: -P[4] of 61
        0.1053660297660444,  // c[23]: -Q[5] of 61
        0.2380667501964918,  // c[24]: -P[5] of 61
        0.20515266792101527,  // c[25]: Q[6] of 61
        0.1602815043062281,  // c[26]: P[6] of 61
        0.09920884237904212,  // c[27]: Q[7] of 61
        0.2406977012179139,  // c[28]: P[7] of 61
        0.07049354660050404,  // c[29]: Q[8] of 61
        0.25061611613274265,  // c[30]: P[8] of 61
        0.09068761161102994,  // c[31]: Q[9] of 61
        0.24403592948183833,  // c[32]: -P[9] of 61
        0.23081456598926853,  // c[33]: Q[10] of 61
        0.12042596856560207,  // c[34]: P[10] of 61
        0.09855050326766758,  // c[35]: Q[11] of 61
        0.24096799804842803,  // c[36]: -P[11] of 61
        0.17085954303793666,  // c[37]: Q[12] of 61
        0.19643012582250524,  // c[38]: -P[12] of 61
        0.25591390402746017,  // c[39]: P[13] of 61
        0.047810579406671994,  // c[40]: -Q[13] of 61
        0.035146745480687275,  // c[41]: Q[14] of 61
        0.25795829907156226,  // c[42]: -P[14] of 61
        0.23576264945389142,  // c[43]: -Q[15] of 61
        0.11042531820311542,  // c[44]: P[15] of 61
        0.07154712447968609,  // c[45]: Q[16] of 61
        0.2503173720628796,  // c[46]: P[16] of 61
        0.15440539602027134,  // c[47]: Q[17] of 61
        0.20961095261841867,  // c[48]: -P[17] of 61
        0.12208153447883048,  // c[49]: P[18] of 61
        0.22994320324173947,  // c[50]: -Q[18] of 61
        0.22194087820108896,  // c[51]: -Q[19] of 61
        0.13608829619444565,  // c[52]: P[19] of 61
        0.005558934851007752,  // c[53]: -P[20] of 61
        0.2602823006297202,  // c[54]: Q[20] of 61
        0.04709103298244708,  // c[55]: Q[21] of 61
        0.256047285458026,  // c[56]: -P[21] of 61
        0.25902765669579647,  // c[57]: Q[22] of 61
        0.02612376015167778,  // c[58]: -P[22] of 61
        0.24362915936079071,  // c[59]: -Q[23] of 61
        0.09177478132326014,  // c[60]: P[23] of 61
        0.2514915834033143,  // c[61]: P[24] of 61
        0.0673035010610264,  // c[62]: -Q[24] of 61
        0.23335104576758062,  // c[63]: P[25] of 61
        0.1154342549547329,  // c[64]: Q[25] of 61
        0.1680594978185787,  // c[65]: -P[26] of 61
        0.1988310412655552,  // c[66]: Q[26] of 61
        0.0335460689418391,  // c[67]: -Q[27] of 61
        0.25817133658934166,  // c[68]: P[27] of 61
        0.21139251213699267,  // c[69]: P[28] of 61
        0.15195717683014903,  // c[70]: -Q[28] of 61
        0.1192479770652986,  // c[71]: P[29] of 61
        0.2314253610640195,  // c[72]: Q[29] of 61
        0.016666666666666666,  // c[73]: 1/60
        0.13017082793177756,  // c[74]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x3 = io.pair(3);
        // doubled bins
        const P t0 = c[0] * x3;
        const P x26 = io.pair(26);
        const P t1 = c[0] * x26;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x20 = io.pair(20);
        const P t3 = c[0] * x20;
        const P x30 = io.pair(30);
        const P t4 = c[0] * x30;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 5
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x27 = io.pair(27);
        // doubled bins
        const P t8 = c[0] * x27;
        const P x10 = io.pair(10);
        const P t9 = c[0] * x10;
        const P t10 = shuffled<0, 2>(t8, t9);
        const P x9 = io.pair(9);
        const P t11 = c[0] * x9;
        const P x17 = io.pair(17);
        const P t12 = c[0] * x17;
        const P t13 = shuffled<0, 2>(t11, t12);
        // real block of 5
        const P t14 = t10 + t13;
        const P t15 = t10 - t13;
        const P t16 = t6 + t14;
        const P x1 = io.pair(1);
        // doubled bins
        const P t17 = c[0] * x1;
        const P x29 = io.pair(29);
        const P t18 = c[0] * x29;
        const P t19 = shuffled<0, 2>(t17, t18);
        // real block of 5
        const P t20 = t16 + t19;
        const P t21 = c[1] * t6;
        const P t22 = c[2] * t14;
        const P t23 = t21 - t22;
        const P t24 = t23 + t19;
        const P t25 = c[3] * t15;
        const P t26 = c[4] * t7;
        const P t27 = t25 - t26;
        const P t28 = c[2] * t6;
        const P t29 = t19 - t28;
        const P t30 = c[1] * t14;
        const P t31 = t29 + t30;
        const P t32 = c[3] * t7;
        const P t33 = c[4] * t15;
        const P t34 = t32 + t33;
        const P x22 = io.pair(22);
        // doubled bins
        const P t35 = c[0] * x22;
        const P x28 = io.pair(28);
        const P t36 = c[0] * x28;
        const P t37 = shuffled<0, 2>(t35, t36);
        const P x16 = io.pair(16);
        const P t38 = c[0] * x16;
        const P x24 = io.pair(24);
        const P t39 = c[0] * x24;
        const P t40 = shuffled<0, 2>(t38, t39);
        // real block of 5
        const P t41 = t37 + t40;
        const P t42 = t37 - t40;
        const P x15 = io.pair(15);
        // doubled bins
        const P t43 = c[0] * x15;
        const P x8 = io.pair(8);
        const P t44 = c[0] * x8;
        const P t45 = shuffled<0, 2>(t43, t44);
        const P x5 = io.pair(5);
        const P t46 = c[0] * x5;
        const P x23 = io.pair(23);
        const P t47 = c[0] * x23;
        const P t48 = shuffled<0, 2>(t46, t47);
        // real block of 5
        const P t49 = t45 + t48;
        const P t50 = t45 - t48;
        const P t51 = t41 + t49;
        const P x13 = io.pair(13);
        // doubled bins
        const P t52 = c[0] * x13;
        const P x11 = io.pair(11);
        const P t53 = c[0] * x11;
        const P t54 = shuffled<0, 2>(t52, t53);
        // real block of 5
        const P t55 = t51 + t54;
        const P t56 = c[1] * t41;
        const P t57 = c[2] * t49;
        const P t58 = t56 - t57;
        const P t59 = t58 + t54;
        const P t60 = c[3] * t50;
        const P t61 = c[4] * t42;
        const P t62 = t60 - t61;
        const P t63 = c[2] * t41;
        const P t64 = t54 - t63;
        const P t65 = c[1] * t49;
        const P t66 = t64 + t65;
        const P t67 = c[3] * t42;
        const P t68 = c[4] * t50;
        const P t69 = t67 + t68;
        const P x19 = io.pair(19);
        // doubled bins
        const P t70 = c[0] * x19;
        const P x2 = io.pair(2);
        const P t71 = c[0] * x2;
        const P t72 = shuffled<0, 2>(t70, t71);
        const P x25 = io.pair(25);
        const P t73 = c[0] * x25;
        const P x7 = io.pair(7);
        const P t74 = c[0] * x7;
        const P t75 = shuffled<0, 2>(t73, t74);
        // real block of 5
        const P t76 = t72 + t75;
        const P t77 = t72 - t75;
        const P x12 = io.pair(12);
        // doubled bins
        const P t78 = c[0] * x12;
        const P x18 = io.pair(18);
        const P t79 = c[0] * x18;
        const P t80 = shuffled<0, 2>(t78, t79);
        const P x4 = io.pair(4);
        const P t81 = c[0] * x4;
        const P x6 = io.pair(6);
        const P t82 = c[0] * x6;
        const P t83 = shuffled<0, 2>(t81, t82);
        // real block of 5
        const P t84 = t80 + t83;
        const P t85 = t80 - t83;
        const P t86 = t76 + t84;
        const P x14 = io.pair(14);
        // doubled bins
        const P t87 = c[0] * x14;
        const P x21 = io.pair(21);
        const P t88 = c[0] * x21;
        const P t89 = shuffled<0, 2>(t87, t88);
        // real block of 5
        const P t90 = t86 + t89;
        const P t91 = c[1] * t76;
        const P t92 = c[2] * t84;
        const P t93 = t91 - t92;
        const P t94 = t93 + t89;
        const P t95 = c[3] * t85;
        const P t96 = c[4] * t77;
        const P t97 = t95 - t96;
        const P t98 = c[2] * t76;
        const P t99 = t89 - t98;
        const P t100 = c[1] * t84;
        const P t101 = t99 + t100;
        const P t102 = c[3] * t77;
        const P t103 = c[4] * t85;
        const P t104 = t102 + t103;
        const P t105 = shuffled<0, 3>(t55, t20);
        // real block of 3
        const P t106 = t90 + t105;
        const P t107 = shuffled<0, 3>(t105, t90);
        const P t108 = shuffled<0, 3>(t90, t105);
        const P t109 = t107 - t108;
        const P t110 = shuffled<0, 3>(t20, t55);
        const P t111 = t106 + t110;
        const P t112 = c[5] * t106;
        const P t113 = t110 - t112;
        const V t114 = part<0>(t111);
        const V t115 = part<1>(t111);
        // real block of 2
        const V t116 = t114 + t115;
        const V t117 = t114 - t115;
        // real block of 3
        const P t118 = c[6] * t109;
        const P t119 = shuffled<0, 2>(t113, t118);
        const P t120 = shuffled<1, 3>(t113, t118);
        // complex block of 2
        const P t121 = t119 + t120;
        const P t122 = shuffled<0, 3>(t119, t120);
        const P t123 = shuffled<0, 3>(t120, t119);
        const P t124 = t122 - t123;
        const P t125 = shuffled<0, 2>(t59, t62);
        const P t126 = shuffled<0, 2>(t94, t97);
        // complex block of 3
        const P t127 = t125 + t126;
        const P t128 = t125 - t126;
        const P t129 = shuffled<0, 2>(t24, t27);
        const P t130 = t127 + t129;
        const P t131 = c[5] * t127;
        const P t132 = t129 - t131;
        const P t133 = P(-c[6], c[6]) * t128;
        const P t134 = shuffled<1, 0>(t133);
        const P t135 = t132 + t134;
        const P t136 = t132 - t134;
        const P t137 = shuffled<1, 3>(t94, t97);
        const P t138 = shuffled<1, 3>(t24, t27);
        // complex block of 3
        const P t139 = t137 + t138;
        const P t140 = t137 - t138;
        const P t141 = shuffled<1, 3>(t59, t62);
        const P t142 = t139 + t141;
        const P t143 = c[5] * t139;
        const P t144 = t141 - t143;
        const P t145 = P(-c[6], c[6]) * t140;
        const P t146 = shuffled<1, 0>(t145);
        const P t147 = t144 + t146;
        const P t148 = t144 - t146;
        // complex block of 2
        const P t149 = t130 + t142;
        const P t150 = t130 - t142;
        // complex block of 2
        const P t151 = t135 + t147;
        const P t152 = t135 - t147;
        // complex block of 2
        const P t153 = t136 + t148;
        const P t154 = t136 - t148;
        const P t155 = shuffled<0, 2>(t66, t69);
        const P t156 = shuffled<0, 2>(t101, t104);
        // complex block of 3
        const P t157 = t155 + t156;
        const P t158 = shuffled<0, 3>(t155, t156);
        const P t159 = shuffled<0, 3>(t156, t155);
        const P t160 = t158 - t159;
        const P t161 = shuffled<0, 2>(t31, t34);
        const P t162 = t157 + t161;
        const P t163 = P(-c[5], c[5]) * t157;
        const P t164 = flipped<0, 1>(t161);
        const P t165 = t163 + t164;
        const P t166 = P(-c[6], c[6]) * t160;
        const P t167 = shuffled<1, 0>(t166);
        const P t168 = t165 + t167;
        const P t169 = t165 - t167;
        const P t170 = shuffled<1, 3>(t101, t104);
        const P t171 = shuffled<1, 3>(t31, t34);
        // complex block of 3
        const P t172 = t170 + t171;
        const P t173 = shuffled<0, 3>(t170, t171);
        const P t174 = shuffled<0, 3>(t171, t170);
        const P t175 = t173 - t174;
        const P t176 = shuffled<1, 3>(t66, t69);
        const P t177 = t172 + t176;
        const P t178 = P(-c[5], c[5]) * t172;
        const P t179 = flipped<0, 1>(t176);
        const P t180 = t178 + t179;
        const P t181 = P(-c[6], c[6]) * t175;
        const P t182 = shuffled<1, 0>(t181);
        const P t183 = t180 + t182;
        const P t184 = t180 - t182;
        // complex block of 2
        const P t185 = t162 + t177;
        const P t186 = shuffled<0, 3>(t162, t177);
        const P t187 = shuffled<0, 3>(t177, t162);
        const P t188 = t186 - t187;
        // complex block of 2
        const P t189 = t168 + t183;
        const P t190 = t168 - t183;
        // complex block of 2
        const P t191 = t169 + t184;
        const P t192 = t169 - t184;
        const P t193 = shuffled<1, 3>(t52, t1);
        const P t194 = shuffled<1, 3>(t87, t36);
        // real block of 3, multiplier 2
        const P t195 = t193 - t194;
        const P t196 = t193 + t194;
        const P t197 = shuffled<1, 3>(t17, t71);
        const P t198 = t195 + t197;
        const P t199 = c[5] * t195;
        const P t200 = t197 - t199;
        const P t201 = shuffled<1, 3>(t35, t47);
        const P t202 = shuffled<1, 3>(t70, t12);
        // real block of 3, multiplier 2
        const P t203 = t201 - t202;
        const P t204 = t202 + t201;
        const P t205 = shuffled<1, 3>(t0, t82);
        const P t206 = t203 - t205;
        const P t207 = c[5] * t203;
        const P t208 = t205 + t207;
        const P t209 = shuffled<1, 3>(t46, t9);
        const P t210 = shuffled<1, 3>(t81, t44);
        // real block of 3, multiplier 2
        const P t211 = t209 + t210;
        const P t212 = t210 - t209;
        const P t213 = shuffled<1, 3>(t11, t79);
        const P t214 = t213 - t211;
        const P t215 = c[5] * t211;
        const P t216 = t215 + t213;
        const P t217 = shuffled<1, 3>(t43, t4);
        const P t218 = shuffled<1, 3>(t78, t39);
        // real block of 3, multiplier 2
        const P t219 = t217 + t218;
        const P t220 = t217 - t218;
        const P t221 = shuffled<1, 3>(t8, t74);
        const P t222 = flipped<1, 0>(t221);
        const P t223 = t219 + t222;
        const P t224 = P(c[5], -c[5]) * t219;
        const P t225 = t221 + t224;
        const P t226 = shuffled<1, 3>(t38, t18);
        const P t227 = shuffled<1, 3>(t73, t53);
        // real block of 3, multiplier 2
        const P t228 = t226 + t227;
        const P t229 = shuffled<0, 3>(t226, t227);
        const P t230 = shuffled<0, 3>(t227, t226);
        const P t231 = t229 - t230;
        const P t232 = shuffled<1, 3>(t3, t88);
        const P t233 = t228 + t232;
        const P t234 = P(-c[5], c[5]) * t228;
        const P t235 = flipped<0, 1>(t232);
        const P t236 = t234 + t235;
        const P t237 = flipped<0, 1>(t233);
        // real block of 5, multiplier 3
        const P t238 = t206 + t237;
        const P t239 = t206 - t237;
        const P t240 = t223 + t214;
        const P t241 = t223 - t214;
        const P t242 = t238 + t240;
        const P t243 = t242 + t198;
        const P t244 = c[2] * t238;
        const P t245 = t198 - t244;
        const P t246 = c[1] * t240;
        const P t247 = t245 + t246;
        const P t248 = c[3] * t239;
        const P t249 = c[4] * t241;
        const P t250 = t248 + t249;
        const P t251 = c[1] * t238;
        const P t252 = c[2] * t240;
        const P t253 = t251 - t252;
        const P t254 = t253 + t198;
        const P t255 = c[3] * t241;
        const P t256 = c[4] * t239;
        const P t257 = t255 - t256;
        // complex block of 5, multiplier 3
        const P t258 = t236 - t208;
        // real block of 3, multiplier 2
        const P t259 = c[6] * t231;
        // real block of 3, multiplier 2
        const P t260 = P(c[6], -c[6]) * t204;
        // complex block of 5, multiplier 3
        const P t261 = t259 + t260;
        const P t262 = t208 + t236;
        const P t263 = flipped<0, 1>(t260);
        const P t264 = flipped<1, 0>(t259);
        const P t265 = t263 + t264;
        const P t266 = flipped<1, 0>(t225);
        const P t267 = t266 + t216;
        // real block of 3, multiplier 2
        const P t268 = c[6] * t220;
        // real block of 3, multiplier 2
        const P t269 = c[6] * t212;
        // complex block of 5, multiplier 3
        const P t270 = t268 + t269;
        const P t271 = flipped<0, 1>(t216);
        const P t272 = t225 + t271;
        const P t273 = t268 - t269;
        const P t274 = t258 + t267;
        const P t275 = t261 + t270;
        const P t276 = t274 + t200;
        // real block of 3, multiplier 2
        const P t277 = c[6] * t196;
        // complex block of 5, multiplier 3
        const P t278 = t275 + t277;
        const P t279 = c[1] * t258;
        const P t280 = c[2] * t267;
        const P t281 = t279 - t280;
        const P t282 = t281 + t200;
        const P t283 = c[1] * t261;
        const P t284 = c[2] * t270;
        const P t285 = t283 - t284;
        const P t286 = t285 + t277;
        const P t287 = P(-c[4], c[4]) * t262;
        const P t288 = c[3] * t272;
        const P t289 = t287 + t288;
        const P t290 = c[4] * t265;
        const P t291 = P(-c[3], c[3]) * t273;
        const P t292 = t290 + t291;
        const P t293 = flipped<0, 1>(t292);
        const P t294 = t282 + t293;
        const P t295 = flipped<1, 0>(t289);
        const P t296 = t286 + t295;
        const P t297 = t282 - t293;
        const P t298 = t286 - t295;
        const P t299 = c[2] * t258;
        const P t300 = t200 - t299;
        const P t301 = c[1] * t267;
        const P t302 = t300 + t301;
        const P t303 = c[2] * t261;
        const P t304 = t277 - t303;
        const P t305 = c[1] * t270;
        const P t306 = t304 + t305;
        const P t307 = c[4] * t272;
        const P t308 = P(c[3], -c[3]) * t262;
        const P t309 = t307 + t308;
        const P t310 = c[4] * t273;
        const P t311 = P(c[3], -c[3]) * t265;
        const P t312 = t310 + t311;
        const P t313 = t302 + t312;
        const P t314 = flipped<0, 1>(t309);
        const P t315 = t306 + t314;
        const P t316 = t302 - t312;
        const P t317 = t306 - t314;
        const P t318 = shuffled<1, 3>(t316, t317);
        // skew block of 30
        const P t319 = c[7] * t318;
        const P t320 = shuffled<1, 0>(t318);
        const P t321 = P(c[8], -c[8]) * t320;
        const P t322 = t319 + t321;
        const P t323 = shuffled<0, 2>(t316, t317);
        // complex block of 2
        const P t324 = t323 + t322;
        const P t325 = t323 - t322;
        const P t326 = shuffled<1, 3>(t254, t257);
        // skew block of 30
        const P t327 = c[4] * t326;
        const P t328 = shuffled<1, 0>(t326);
        const P t329 = P(-c[1], c[1]) * t328;
        const P t330 = t327 + t329;
        const P t331 = shuffled<0, 2>(t254, t257);
        // complex block of 2
        const P t332 = t331 + t330;
        const P t333 = shuffled<0, 3>(t331, t330);
        const P t334 = shuffled<0, 3>(t330, t331);
        const P t335 = t333 - t334;
        const P t336 = shuffled<1, 3>(t276, t278);
        // skew block of 30
        const P t337 = c[6] * t336;
        const P t338 = shuffled<1, 0>(t336);
        const P t339 = P(-c[5], c[5]) * t338;
        const P t340 = t337 + t339;
        const P t341 = shuffled<0, 2>(t276, t278);
        // complex block of 2
        const P t342 = t341 + t340;
        const P t343 = shuffled<0, 3>(t341, t340);
        const P t344 = shuffled<0, 3>(t340, t341);
        const P t345 = t343 - t344;
        const P t346 = shuffled<1, 3>(t294, t296);
        // skew block of 30
        const P t347 = c[9] * t346;
        const P t348 = shuffled<1, 0>(t346);
        const P t349 = P(c[10], -c[10]) * t348;
        const P t350 = t347 + t349;
        const P t351 = shuffled<0, 2>(t294, t296);
        // complex block of 2
        const P t352 = t351 + t350;
        const P t353 = t351 - t350;
        const P t354 = shuffled<1, 3>(t247, t250);
        // skew block of 30
        const P t355 = c[3] * t354;
        const P t356 = shuffled<1, 0>(t354);
        const P t357 = P(-c[2], c[2]) * t356;
        const P t358 = t355 + t357;
        const P t359 = shuffled<0, 2>(t247, t250);
        // complex block of 2
        const P t360 = t359 + t358;
        const P t361 = shuffled<0, 3>(t359, t358);
        const P t362 = shuffled<0, 3>(t358, t359);
        const P t363 = t361 - t362;
        const P t364 = shuffled<1, 3>(t313, t315);
        // skew block of 30
        const P t365 = c[11] * t364;
        const P t366 = shuffled<1, 0>(t364);
        const P t367 = P(-c[12], c[12]) * t366;
        const P t368 = t365 + t367;
        const P t369 = shuffled<0, 2>(t313, t315);
        // complex block of 2
        const P t370 = t369 + t368;
        const P t371 = shuffled<0, 3>(t369, t368);
        const P t372 = shuffled<0, 3>(t368, t369);
        const P t373 = t371 - t372;
        const P t374 = shuffled<1, 3>(t297, t298);
        // skew block of 30
        const P t375 = c[13] * t374;
        const P t376 = shuffled<1, 0>(t374);
        const P t377 = P(c[14], -c[14]) * t376;
        const P t378 = t375 + t377;
        const P t379 = shuffled<0, 2>(t297, t298);
        // complex block of 2
        const P t380 = t379 + t378;
        const P t381 = t379 - t378;
        const V x0r = io.re(0);
        // spectrum block of 61
        const V t382 = c[73] * t116;
        const V t383 = x0r - t382;
        const P t384 = P(-c[15], c[15]) * t324;
        const P t385 = shuffled<1, 0>(t324);
        const P t386 = c[16] * t385;
        const P t387 = t384 + t386;
        const P t388 = c[17] * t152;
        const P t389 = shuffled<1, 0>(t152);
        const P t390 = P(-c[18], c[18]) * t389;
        const P t391 = t388 + t390;
        const P t392 = c[19] * t332;
        const P t393 = shuffled<1, 0>(t332);
        const P t394 = P(-c[20], c[20]) * t393;
        const P t395 = t392 + t394;
        const P t396 = shuffled<1, 0>(t191);
        const P t397 = c[21] * t396;
        const P t398 = P(c[22], -c[22]) * t191;
        const P t399 = t397 + t398;
        const P t400 = c[23] * t342;
        const P t401 = shuffled<1, 0>(t342);
        const P t402 = P(c[24], -c[24]) * t401;
        const P t403 = t400 + t402;
        const P t404 = shuffled<1, 0>(t188);
        const P t405 = c[25] * t404;
        const P t406 = P(c[26], -c[26]) * t188;
        const P t407 = t405 + t406;
        const P t408 = c[27] * t352;
        const P t409 = shuffled<1, 0>(t352);
        const P t410 = P(-c[28], c[28]) * t409;
        const P t411 = t408 + t410;
        const P t412 = shuffled<1, 0>(t153);
        const P t413 = c[29] * t412;
        const P t414 = P(c[30], -c[30]) * t153;
        const P t415 = t413 + t414;
        const P t416 = c[31] * t360;
        const P t417 = shuffled<1, 0>(t360);
        const P t418 = P(-c[32], c[32]) * t417;
        const P t419 = t416 + t418;
        const P t420 = shuffled<1, 0>(t124);
        const P t421 = c[33] * t420;
        const P t422 = P(c[34], -c[34]) * t124;
        const P t423 = t421 + t422;
        const P t424 = c[35] * t370;
        const P t425 = shuffled<1, 0>(t370);
        const P t426 = P(-c[36], c[36]) * t425;
        const P t427 = t424 + t426;
        const P t428 = shuffled<1, 0>(t149);
        const P t429 = c[37] * t428;
        const P t430 = P(c[38], -c[38]) * t149;
        const P t431 = t429 + t430;
        const P t432 = shuffled<1, 0>(t380);
        const P t433 = c[39] * t432;
        const P t434 = P(c[40], -c[40]) * t380;
        const P t435 = t433 + t434;
        const P t436 = shuffled<1, 0>(t190);
        const P t437 = c[41] * t436;
        const P t438 = P(c[42], -c[42]) * t190;
        const P t439 = t437 + t438;
        const P t440 = P(-c[43], c[43]) * t243;
        const P t441 = shuffled<1, 0>(t243);
        const P t442 = c[44] * t441;
        const P t443 = t440 + t442;
        const P t444 = shuffled<1, 0>(t189);
        const P t445 = c[45] * t444;
        const P t446 = P(c[46], -c[46]) * t189;
        const P t447 = t445 + t446;
        const P t448 = c[47] * t381;
        const P t449 = shuffled<1, 0>(t381);
        const P t450 = P(-c[48], c[48]) * t449;
        const P t451 = t448 + t450;
        const P t452 = c[49] * t150;
        const P t453 = shuffled<1, 0>(t150);
        const P t454 = P(-c[50], c[50]) * t453;
        const P t455 = t452 + t454;
        const P t456 = P(-c[51], c[51]) * t373;
        const P t457 = shuffled<1, 0>(t373);
        const P t458 = c[52] * t457;
        const P t459 = t456 + t458;
        const P t460 = P(-c[53], c[53]) * t121;
        const P t461 = shuffled<1, 0>(t121);
        const P t462 = c[54] * t461;
        const P t463 = t460 + t462;
        const P t464 = c[55] * t363;
        const P t465 = shuffled<1, 0>(t363);
        const P t466 = P(-c[56], c[56]) * t465;
        const P t467 = t464 + t466;
        const P t468 = shuffled<1, 0>(t154);
        const P t469 = c[57] * t468;
        const P t470 = P(c[58], -c[58]) * t154;
        const P t471 = t469 + t470;
        const P t472 = P(-c[59], c[59]) * t353;
        const P t473 = shuffled<1, 0>(t353);
        const P t474 = c[60] * t473;
        const P t475 = t472 + t474;
        const P t476 = c[61] * t185;
        const P t477 = shuffled<1, 0>(t185);
        const P t478 = P(-c[62], c[62]) * t477;
        const P t479 = t476 + t478;
        const P t480 = shuffled<1, 0>(t345);
        const P t481 = c[63] * t480;
        const P t482 = P(c[64], -c[64]) * t345;
        const P t483 = t481 + t482;
        const P t484 = P(-c[65], c[65]) * t192;
        const P t485 = shuffled<1, 0>(t192);
        const P t486 = c[66] * t485;
        const P t487 = t484 + t486;
        const P t488 = P(-c[67], c[67]) * t335;
        const P t489 = shuffled<1, 0>(t335);
        const P t490 = c[68] * t489;
        const P t491 = t488 + t490;
        const P t492 = c[69] * t151;
        const P t493 = shuffled<1, 0>(t151);
        const P t494 = P(-c[70], c[70]) * t493;
        const P t495 = t492 + t494;
        const P t496 = shuffled<1, 0>(t325);
        const P t497 = c[71] * t496;
        const P t498 = P(c[72], -c[72]) * t325;
        const P t499 = t497 + t498;
        const V t500 = c[74] * t117;
        // spectrum block of 2
        const V t501 = t383 + t500;
        const V t502 = t383 - t500;
        const P t503 = joined(t501, t502);
        // spectrum block of 2
        const P t504 = t503 + t443;
        const P t505 = t503 - t443;
        const P t506 = shuffled<0, 3>(t487, t399);
        const P t507 = shuffled<0, 3>(t399, t487);
        // complex block of 2
        const P t508 = t506 - t507;
        const P t509 = t399 + t487;
        // complex block of 2
        const P t510 = t459 + t427;
        const P t511 = t459 - t427;
        // complex block of 2
        const P t512 = t508 + t510;
        const P t513 = t508 - t510;
        const P t514 = shuffled<1, 3>(t511, t509);
        const P t515 = shuffled<0, 2>(t509, t511);
        // complex block of 2
        const P t516 = t514 - t515;
        const P t517 = t514 + t515;
        // complex block of 2
        const P t518 = t415 - t471;
        const P t519 = t415 + t471;
        const P t520 = flipped<0, 1>(t411);
        // complex block of 2
        const P t521 = t475 + t520;
        const P t522 = t475 - t520;
        // complex block of 2
        const P t523 = t518 + t521;
        const P t524 = t518 - t521;
        const P t525 = shuffled<1, 0>(t522);
        const P t526 = flipped<0, 1>(t525);
        // complex block of 2
        const P t527 = t519 + t526;
        const P t528 = t519 - t526;
        const P t529 = flipped<1, 0>(t431);
        // complex block of 2
        const P t530 = t529 + t455;
        const P t531 = flipped<0, 1>(t455);
        const P t532 = t431 + t531;
        // complex block of 2
        const P t533 = t491 + t395;
        const P t534 = t491 - t395;
        // complex block of 2
        const P t535 = t530 + t533;
        const P t536 = t530 - t533;
        const P t537 = shuffled<1, 3>(t534, t532);
        const P t538 = shuffled<0, 2>(t532, t534);
        // complex block of 2
        const P t539 = t537 - t538;
        const P t540 = t537 + t538;
        // complex block of 2
        const P t541 = t447 - t439;
        const P t542 = t447 + t439;
        // complex block of 2
        const P t543 = t499 + t387;
        const P t544 = shuffled<0, 3>(t499, t387);
        const P t545 = shuffled<0, 3>(t387, t499);
        const P t546 = t544 - t545;
        const P t547 = flipped<0, 1>(t543);
        // complex block of 2
        const P t548 = t541 + t547;
        const P t549 = t541 - t547;
        const P t550 = shuffled<1, 0>(t546);
        const P t551 = flipped<0, 1>(t550);
        // complex block of 2
        const P t552 = t542 + t551;
        const P t553 = t542 - t551;
        const P t554 = flipped<0, 1>(t423);
        // complex block of 2
        const P t555 = t463 + t554;
        const P t556 = t463 - t554;
        const P t557 = shuffled<0, 3>(t483, t403);
        const P t558 = shuffled<0, 3>(t403, t483);
        // complex block of 2
        const P t559 = t557 - t558;
        const P t560 = t483 + t403;
        // complex block of 2
        const P t561 = t555 + t559;
        const P t562 = t555 - t559;
        const P t563 = shuffled<1, 0>(t560);
        // complex block of 2
        const P t564 = t556 - t563;
        const P t565 = t556 + t563;
        // complex block of 2
        const P t566 = t479 + t407;
        const P t567 = shuffled<0, 3>(t479, t407);
        const P t568 = shuffled<0, 3>(t407, t479);
        const P t569 = t567 - t568;
        const P t570 = flipped<0, 1>(t419);
        // complex block of 2
        const P t571 = t467 + t570;
        const P t572 = t467 - t570;
        const P t573 = flipped<0, 1>(t566);
        // complex block of 2
        const P t574 = t571 + t573;
        const P t575 = flipped<1, 0>(t571);
        const P t576 = t566 + t575;
        const P t577 = shuffled<1, 0>(t572);
        const P t578 = flipped<0, 1>(t577);
        // complex block of 2
        const P t579 = t569 + t578;
        const P t580 = t569 - t578;
        // complex block of 2
        const P t581 = t495 + t391;
        const P t582 = shuffled<0, 3>(t495, t391);
        const P t583 = shuffled<0, 3>(t391, t495);
        const P t584 = t582 - t583;
        const P t585 = flipped<1, 0>(t435);
        // complex block of 2
        const P t586 = t451 + t585;
        const P t587 = t451 - t585;
        const P t588 = flipped<0, 1>(t581);
        // complex block of 2
        const P t589 = t586 + t588;
        const P t590 = flipped<1, 0>(t586);
        const P t591 = t581 + t590;
        const P t592 = shuffled<1, 0>(t587);
        const P t593 = flipped<0, 1>(t592);
        // complex block of 2
        const P t594 = t584 + t593;
        const P t595 = t584 - t593;
        const P t596 = shuffled<0, 2>(t561, t564);
        // spectrum block of 3, multiplier 2
        const P t597 = t596 + t504;
        const P t598 = c[5] * t596;
        const P t599 = t504 - t598;
        const P t600 = shuffled<1, 3>(t561, t564);
        const P t601 = c[6] * t600;
        const P t602 = t599 - t601;
        const P t603 = t599 + t601;
        const P t604 = shuffled<1, 3>(t589, t594);
        const P t605 = shuffled<1, 3>(t523, t527);
        // complex block of 3, multiplier 2
        const P t606 = t604 + t605;
        const P t607 = shuffled<0, 2>(t589, t594);
        const P t608 = shuffled<0, 2>(t523, t527);
        const P t609 = t607 + t608;
        const P t610 = t605 - t604;
        const P t611 = t607 - t608;
        const P t612 = shuffled<1, 3>(t535, t539);
        const P t613 = t612 - t606;
        const P t614 = shuffled<0, 2>(t535, t539);
        const P t615 = t609 + t614;
        const P t616 = c[5] * t606;
        const P t617 = t616 + t612;
        const P t618 = c[5] * t609;
        const P t619 = t614 - t618;
        const P t620 = c[6] * t611;
        const P t621 = t617 + t620;
        const P t622 = c[6] * t610;
        const P t623 = t619 - t622;
        const P t624 = t617 - t620;
        const P t625 = t619 + t622;
        const P t626 = shuffled<1, 3>(t512, t516);
        const P t627 = shuffled<1, 3>(t548, t552);
        // complex block of 3, multiplier 2
        const P t628 = t626 - t627;
        const P t629 = shuffled<0, 2>(t548, t552);
        const P t630 = shuffled<0, 2>(t512, t516);
        const P t631 = t629 + t630;
        const P t632 = t627 + t626;
        const P t633 = t629 - t630;
        const P t634 = shuffled<1, 3>(t574, t579);
        const P t635 = t628 + t634;
        const P t636 = shuffled<0, 2>(t574, t579);
        const P t637 = t631 + t636;
        const P t638 = c[5] * t628;
        const P t639 = t634 - t638;
        const P t640 = c[5] * t631;
        const P t641 = t636 - t640;
        const P t642 = c[6] * t633;
        const P t643 = t639 + t642;
        const P t644 = c[6] * t632;
        const P t645 = t641 + t644;
        const P t646 = t639 - t642;
        const P t647 = t641 - t644;
        // spectrum block of 5, multiplier 2
        const P t648 = t615 + t637;
        const P t649 = t648 + t597;
        io.out(1, 50, t649);
        const P t650 = c[1] * t615;
        const P t651 = c[2] * t637;
        const P t652 = t650 - t651;
        const P t653 = t652 + t597;
        const P t654 = c[4] * t613;
        const P t655 = c[3] * t635;
        const P t656 = t654 + t655;
        const P t657 = t653 - t656;
        io.out(20, 24, t657);
        const P t658 = t653 + t656;
        io.out(58, 33, t658);
        const P t659 = c[2] * t615;
        const P t660 = t597 - t659;
        const P t661 = c[1] * t637;
        const P t662 = t660 + t661;
        const P t663 = c[3] * t613;
        const P t664 = c[4] * t635;
        const P t665 = t663 - t664;
        const P t666 = t662 - t665;
        io.out(34, 53, t666);
        const P t667 = t662 + t665;
        io.out(9, 23, t667);
        // spectrum block of 5, multiplier 2
        const P t668 = t625 + t647;
        const P t669 = t668 + t603;
        io.out(13, 40, t669);
        const P t670 = c[1] * t625;
        const P t671 = c[2] * t647;
        const P t672 = t670 - t671;
        const P t673 = t672 + t603;
        const P t674 = c[4] * t624;
        const P t675 = c[3] * t646;
        const P t676 = t674 + t675;
        const P t677 = t673 - t676;
        io.out(16, 7, t677);
        const P t678 = t673 + t676;
        io.out(22, 2, t678);
        const P t679 = c[2] * t625;
        const P t680 = t603 - t679;
        const P t681 = c[1] * t647;
        const P t682 = t680 + t681;
        const P t683 = c[3] * t624;
        const P t684 = c[4] * t646;
        const P t685 = t683 - t684;
        const P t686 = t682 - t685;
        io.out(15, 18, t686);
        const P t687 = t682 + t685;
        io.out(56, 55, t687);
        // spectrum block of 5, multiplier 2
        const P t688 = t623 + t645;
        const P t689 = t688 + t602;
        io.out(47, 32, t689);
        const P t690 = c[1] * t623;
        const P t691 = c[2] * t645;
        const P t692 = t690 - t691;
        const P t693 = t692 + t602;
        const P t694 = c[4] * t621;
        const P t695 = c[3] * t643;
        const P t696 = t694 + t695;
        const P t697 = t693 - t696;
        io.out(25, 30, t697);
        const P t698 = t693 + t696;
        io.out(42, 26, t698);
        const P t699 = c[2] * t623;
        const P t700 = t602 - t699;
        const P t701 = c[1] * t645;
        const P t702 = t700 + t701;
        const P t703 = c[3] * t621;
        const P t704 = c[4] * t643;
        const P t705 = t703 - t704;
        const P t706 = t702 - t705;
        io.out(12, 51, t706);
        const P t707 = t702 + t705;
        io.out(57, 44, t707);
        const P t708 = shuffled<0, 2>(t549, t553);
        const P t709 = shuffled<0, 2>(t513, t517);
        const P t710 = flipped<0, 1>(t709);
        // complex block of 3, multiplier 2
        const P t711 = t708 + t710;
        const P t712 = shuffled<0, 2>(t576, t580);
        const P t713 = c[5] * t711;
        const P t714 = t712 - t713;
        const P t715 = shuffled<1, 3>(t549, t553);
        const P t716 = shuffled<1, 3>(t513, t517);
        const P t717 = t715 + t716;
        const P t718 = c[6] * t717;
        const P t719 = t714 + t718;
        const P t720 = shuffled<0, 2>(t591, t595);
        const P t721 = shuffled<0, 2>(t524, t528);
        // complex block of 3, multiplier 2
        const P t722 = t720 + t721;
        const P t723 = shuffled<0, 2>(t536, t540);
        const P t724 = P(-c[5], c[5]) * t722;
        const P t725 = t723 + t724;
        const P t726 = shuffled<1, 3>(t591, t528);
        const P t727 = shuffled<1, 3>(t524, t595);
        const P t728 = flipped<0, 1>(t727);
        const P t729 = t726 + t728;
        const P t730 = P(-c[6], c[6]) * t729;
        const P t731 = t725 + t730;
        // spectrum block of 5, multiplier 2
        const P t732 = c[1] * t731;
        const V t733 = part<0>(t732);
        const V t734 = part<0>(t719);
        const V t735 = c[2] * t734;
        const V t736 = t733 - t735;
        const P t737 = shuffled<0, 2>(t562, t565);
        // spectrum block of 3, multiplier 2
        const P t738 = c[5] * t737;
        const P t739 = t505 - t738;
        const P t740 = shuffled<1, 3>(t562, t565);
        const P t741 = c[6] * t740;
        const P t742 = t739 - t741;
        const V t743 = part<0>(t742);
        // spectrum block of 5, multiplier 2
        const P t744 = c[2] * t731;
        const V t745 = part<0>(t744);
        const V t746 = t743 - t745;
        // spectrum block of 3, multiplier 2
        const P t747 = t737 + t505;
        const P t748 = t739 + t741;
        // complex block of 3, multiplier 2
        const P t749 = t726 - t728;
        const P t750 = t720 - t721;
        const P t751 = shuffled<1, 3>(t536, t540);
        const P t752 = flipped<0, 1>(t749);
        const P t753 = t751 + t752;
        const P t754 = flipped<0, 1>(t723);
        const P t755 = t722 + t754;
        const P t756 = P(-c[5], c[5]) * t749;
        const P t757 = t756 + t751;
        const P t758 = c[6] * t750;
        const P t759 = t757 + t758;
        const P t760 = t757 - t758;
        const P t761 = shuffled<0, 3>(t725, t730);
        const P t762 = shuffled<0, 3>(t730, t725);
        const P t763 = t761 - t762;
        // complex block of 3, multiplier 2
        const P t764 = t716 - t715;
        const P t765 = t708 - t710;
        const P t766 = shuffled<1, 3>(t576, t580);
        const P t767 = flipped<1, 0>(t766);
        const P t768 = t764 + t767;
        const P t769 = t711 + t712;
        const P t770 = P(c[5], -c[5]) * t764;
        const P t771 = t766 + t770;
        const P t772 = flipped<1, 0>(t771);
        const P t773 = c[6] * t765;
        const P t774 = t772 + t773;
        const P t775 = flipped<0, 1>(t773);
        const P t776 = t771 + t775;
        const P t777 = t714 - t718;
        // spectrum block of 5, multiplier 2
        const P t778 = t755 + t769;
        const P t779 = t778 + t747;
        io.out(60, 11, t779);
        const P t780 = c[1] * t755;
        const P t781 = c[2] * t769;
        const P t782 = t780 - t781;
        const P t783 = t782 + t747;
        const P t784 = c[4] * t753;
        const P t785 = c[3] * t768;
        const P t786 = t784 + t785;
        const P t787 = t783 - t786;
        io.out(41, 37, t787);
        const P t788 = t783 + t786;
        io.out(3, 28, t788);
        const P t789 = c[2] * t755;
        const P t790 = t747 - t789;
        const P t791 = c[1] * t769;
        const P t792 = t790 + t791;
        const P t793 = c[3] * t753;
        const P t794 = c[4] * t768;
        const P t795 = t793 - t794;
        const P t796 = t792 - t795;
        io.out(27, 8, t796);
        const P t797 = t792 + t795;
        io.out(52, 38, t797);
        // spectrum block of 5, multiplier 2
        const P t798 = t763 + t777;
        const P t799 = t798 + t748;
        io.out(48, 21, t799);
        const P t800 = c[1] * t763;
        const P t801 = c[2] * t777;
        const P t802 = t800 - t801;
        const P t803 = t802 + t748;
        const P t804 = c[4] * t760;
        const P t805 = P(-c[3], c[3]) * t776;
        const P t806 = t804 + t805;
        const P t807 = t803 - t806;
        io.out(45, 54, t807);
        const P t808 = t803 + t806;
        io.out(39, 59, t808);
        const P t809 = c[2] * t763;
        const P t810 = t748 - t809;
        const P t811 = c[1] * t777;
        const P t812 = t810 + t811;
        const P t813 = c[3] * t760;
        const P t814 = P(c[4], -c[4]) * t776;
        const P t815 = t813 + t814;
        const P t816 = t812 - t815;
        io.out(46, 43, t816);
        const P t817 = t812 + t815;
        io.out(5, 6, t817);
        const P t818 = flipped<0, 1>(t731);
        // spectrum block of 5, multiplier 2
        const P t819 = t719 + t818;
        const P t820 = t819 + t742;
        io.out(14, 29, t820);
        const V t821 = part<1>(t742);
        const V t822 = part<1>(t732);
        // spectrum block of 5, multiplier 2
        const V t823 = t821 - t822;
        const P t824 = joined(t736, t823);
        const V t825 = part<1>(t719);
        const V t826 = -c[2] * t825;
        const P t827 = joined(t743, t826);
        // spectrum block of 5, multiplier 2
        const P t828 = t824 + t827;
        const P t829 = c[4] * t759;
        const P t830 = c[3] * t774;
        const P t831 = t829 + t830;
        const P t832 = t828 - t831;
        io.out(36, 31, t832);
        const P t833 = t828 + t831;
        io.out(19, 35, t833);
        const V t834 = part<1>(t744);
        // spectrum block of 5, multiplier 2
        const V t835 = c[1] * t825;
        const V t836 = t834 + t835;
        const P t837 = joined(t746, t836);
        // spectrum block of 5, multiplier 2
        const V t838 = c[1] * t734;
        const P t839 = joined(t838, t821);
        const P t840 = t837 + t839;
        const P t841 = c[3] * t759;
        const P t842 = c[4] * t774;
        const P t843 = t841 - t842;
        const P t844 = t840 - t843;
        io.out(49, 10, t844);
        const P t845 = t840 + t843;
        io.out(4, 17, t845);
        // spectrum block of 61
        const V t846 = x0r + t116;
        io.out(0, t846);
    }
};

}  // namespace zulg
