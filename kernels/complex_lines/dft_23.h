// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 23.
// Complex DFT of 23 points, Rader block; two lines of a stage to a register.
// 95 sums, 73 differences, 122 products of registers, which do the 1174 steps of the graph, those with
// `scale` included; 60 shuffles, 22 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<23> {
    static constexpr int steps = 1174;  // with `scale`
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.41541501300188644,  // c[4]: cos 2 pi 2/11
        0.6548607339452851,  // c[5]: -cos 2 pi 18/11
        0.9594929736144974,  // c[6]: -cos 2 pi 6/11
        0.14231483827328514,  // c[7]: -cos 2 pi 8/11
        0.8412535328311812,  // c[8]: cos 2 pi 12/11
        0.7557495743542583,  // c[9]: -sin 2 pi 18/11
        0.28173255684142967,  // c[10]: -sin 2 pi 6/11
        0.9898214418809327,  // c[11]: -sin 2 pi 8/11
        0.9096319953545183,  // c[12]: sin 2 pi 2/11
        0.5406408174555976,  // c[13]: sin 2 pi 12/11
        0.6262008235209833,  // c[14]: -Q[1] of 11
        0.21879791731559586,  // c[15]: P[1] of 11
        0.5457579199356125,  // c[16]: P[2] of 11
        0.3770255864361907,  // c[17]: -Q[2] of 11
        0.6150936508690751,  // c[18]: -Q[3] of 11
        0.24831391555962465,  // c[19]: -P[3] of 11
        0.030342906933726127,  // c[20]: -P[4] of 11
        0.6626305969383026,  // c[21]: -Q[4] of 11
        0.22644695169903334,  // c[22]: Q[4] of 23
        0.06955203016683642,  // c[23]: P[1] of 23
        0.37256465572342584,  // c[24]: P[4] of 23
        0.4304011613922187,  // c[25]: Q[1] of 23
        0.16641042622004737,  // c[26]: P[6] of 23
        0.43594373606982356,  // c[27]: P[5] of 23
        0.4029766924691319,  // c[28]: Q[6] of 23
        0.005975249750696167,  // c[29]: -Q[5] of 23
        0.17583093692664623,  // c[30]: P[7] of 23
        0.3989562961623703,  // c[31]: Q[7] of 23
        0.43595445213547385,  // c[32]: -Q[8] of 23
        0.27718353274096963,  // c[33]: P[3] of 23
        0.005134227435360646,  // c[34]: -P[8] of 23
        0.33652924658242556,  // c[35]: -Q[3] of 23
        0.04453017869194607,  // c[36]: P[2] of 23
        0.43504853203320293,  // c[37]: -Q[9] of 23
        0.43370463199482034,  // c[38]: Q[2] of 23
        0.028555549440596593,  // c[39]: -P[9] of 23
        0.4300007996022861,  // c[40]: P[10] of 23
        0.07198581089002037,  // c[41]: -Q[10] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x1_2 = io.pairs(1, 2);
        const Q x22_21 = io.pairs(22, 21);
        // real block of 2
        const Q t0 = x1_2 + x22_21;
        const Q t1 = x1_2 - x22_21;
        const Q x4_8 = io.pairs(4, 8);
        const Q x19_15 = io.pairs(19, 15);
        // real block of 2
        const Q t2 = x4_8 + x19_15;
        const Q t3 = x4_8 - x19_15;
        const Q x16_9 = io.pairs(16, 9);
        const Q x7_14 = io.pairs(7, 14);
        // real block of 2
        const Q t4 = x16_9 + x7_14;
        const Q t5 = x16_9 - x7_14;
        const Q x18_13 = io.pairs(18, 13);
        const Q x5_10 = io.pairs(5, 10);
        // real block of 2
        const Q t6 = x18_13 + x5_10;
        const Q t7 = x18_13 - x5_10;
        const Q x3_6 = io.pairs(3, 6);
        const Q x20_17 = io.pairs(20, 17);
        // real block of 2
        const Q t8 = x3_6 + x20_17;
        const Q t9 = x3_6 - x20_17;
        const P x12 = io.pair(12);
        const P x11 = io.pair(11);
        // real block of 2
        const P t10 = x12 + x11;
        const P t11 = x12 - x11;
        const Q t12 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t13 = joined(t10, t11);
        // real block of 11, multiplier 2
        const Q t14 = t12 + t13;
        const Q t15 = t12 - t13;
        const Q t16 = shuffled<2, 3, 6, 7>(t8, t9);
        const Q t17 = shuffled<0, 1, 4, 5>(t2, t3);
        const Q t18 = t16 + t17;
        const Q t19 = t16 - t17;
        const Q t20 = shuffled<2, 3, 6, 7>(t2, t3);
        const Q t21 = shuffled<0, 1, 4, 5>(t8, t9);
        const Q t22 = t20 + t21;
        const Q t23 = t20 - t21;
        const Q t24 = shuffled<0, 1, 4, 5>(t4, t5);
        const Q t25 = shuffled<2, 3, 6, 7>(t6, t7);
        const Q t26 = t24 + t25;
        const Q t27 = t24 - t25;
        const Q t28 = shuffled<0, 1, 4, 5>(t6, t7);
        const Q t29 = shuffled<2, 3, 6, 7>(t4, t5);
        const Q t30 = t28 + t29;
        const Q t31 = t28 - t29;
        const Q t32 = t14 + t18;
        const Q t33 = t32 + t22;
        const Q t34 = t33 + t26;
        const Q t35 = t34 + t30;
        const Q t36 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t37 = t35 + t36;
        const Q t38 = c[4] * t14;
        const Q t39 = c[5] * t18;
        const Q t40 = t38 - t39;
        const Q t41 = c[6] * t22;
        const Q t42 = t40 - t41;
        const Q t43 = c[7] * t26;
        const Q t44 = t42 - t43;
        const Q t45 = c[8] * t30;
        const Q t46 = t44 + t45;
        const Q t47 = t46 + t36;
        const Q t48 = c[9] * t19;
        const Q t49 = c[10] * t23;
        const Q t50 = t48 + t49;
        const Q t51 = c[11] * t27;
        const Q t52 = t50 + t51;
        const Q t53 = c[12] * t15;
        const Q t54 = t52 - t53;
        const Q t55 = c[13] * t31;
        const Q t56 = t54 - t55;
        const Q t57 = c[5] * t14;
        const Q t58 = t36 - t57;
        const Q t59 = c[7] * t18;
        const Q t60 = t58 - t59;
        const Q t61 = c[8] * t22;
        const Q t62 = t60 + t61;
        const Q t63 = c[6] * t26;
        const Q t64 = t62 - t63;
        const Q t65 = c[4] * t30;
        const Q t66 = t64 + t65;
        const Q t67 = c[9] * t15;
        const Q t68 = c[11] * t19;
        const Q t69 = t67 + t68;
        const Q t70 = c[13] * t23;
        const Q t71 = t69 + t70;
        const Q t72 = c[10] * t27;
        const Q t73 = t71 + t72;
        const Q t74 = c[12] * t31;
        const Q t75 = t73 + t74;
        const Q t76 = c[6] * t14;
        const Q t77 = t36 - t76;
        const Q t78 = c[8] * t18;
        const Q t79 = t77 + t78;
        const Q t80 = c[5] * t22;
        const Q t81 = t79 - t80;
        const Q t82 = c[4] * t26;
        const Q t83 = t81 + t82;
        const Q t84 = c[7] * t30;
        const Q t85 = t83 - t84;
        const Q t86 = c[10] * t15;
        const Q t87 = c[13] * t19;
        const Q t88 = t86 + t87;
        const Q t89 = c[9] * t23;
        const Q t90 = t88 + t89;
        const Q t91 = c[12] * t27;
        const Q t92 = t90 - t91;
        const Q t93 = c[11] * t31;
        const Q t94 = t92 - t93;
        const Q t95 = c[7] * t14;
        const Q t96 = t36 - t95;
        const Q t97 = c[6] * t18;
        const Q t98 = t96 - t97;
        const Q t99 = c[4] * t22;
        const Q t100 = t98 + t99;
        const Q t101 = c[8] * t26;
        const Q t102 = t100 + t101;
        const Q t103 = c[5] * t30;
        const Q t104 = t102 - t103;
        const Q t105 = c[11] * t15;
        const Q t106 = c[10] * t19;
        const Q t107 = t105 + t106;
        const Q t108 = c[13] * t27;
        const Q t109 = t107 + t108;
        const Q t110 = c[12] * t23;
        const Q t111 = t109 - t110;
        const Q t112 = c[9] * t31;
        const Q t113 = t111 - t112;
        const Q t114 = c[8] * t14;
        const Q t115 = c[4] * t18;
        const Q t116 = t114 + t115;
        const Q t117 = c[7] * t22;
        const Q t118 = t116 - t117;
        const Q t119 = c[5] * t26;
        const Q t120 = t118 - t119;
        const Q t121 = c[6] * t30;
        const Q t122 = t120 - t121;
        const Q t123 = t122 + t36;
        const Q t124 = c[13] * t15;
        const Q t125 = c[11] * t23;
        const Q t126 = t124 + t125;
        const Q t127 = c[9] * t27;
        const Q t128 = t126 + t127;
        const Q t129 = c[12] * t19;
        const Q t130 = t128 - t129;
        const Q t131 = c[10] * t31;
        const Q t132 = t130 - t131;
        const P x0 = io.pair(0);
        const P t133 = part<0>(t37);
        // complex block of 23
        const P t134 = x0 + t133;
        io.pair(0, t134);
        const P t135 = c[44] * t133;
        const P t136 = x0 - t135;
        const Q t137 = shuffled<1, 0, 3, 2>(t123);
        const Q t138 = shuffled<0, 1, 6, 7>(t66, t137);
        const Q t139 = Q(c[22], c[22], c[23], -c[23]) * t138;
        const Q t140 = shuffled<1, 0, 3, 2>(t132);
        const Q t141 = shuffled<0, 1, 6, 7>(t75, t140);
        const Q t142 = Q(c[24], c[24], c[25], -c[25]) * t141;
        const Q t143 = t139 - t142;
        const Q t144 = shuffled<1, 0, 3, 2>(t94);
        const Q t145 = shuffled<0, 1, 6, 7>(t85, t144);
        const Q t146 = Q(c[26], c[26], c[27], -c[27]) * t145;
        const Q t147 = shuffled<1, 0, 3, 2>(t85);
        const Q t148 = shuffled<0, 1, 6, 7>(t94, t147);
        const Q t149 = Q(c[28], c[28], c[29], -c[29]) * t148;
        const Q t150 = t146 - t149;
        const Q t151 = shuffled<0, 1, 6, 7>(t148, t145);
        const Q t152 = Q(c[26], c[26], c[29], c[29]) * t151;
        const Q t153 = shuffled<0, 1, 6, 7>(t145, t148);
        const Q t154 = Q(c[28], c[28], c[27], c[27]) * t153;
        const Q t155 = t152 + t154;
        const Q t156 = shuffled<0, 5, 3, 6>(t75, t75);
        const Q t157 = Q(c[22], c[22], -c[30], c[30]) * t156;
        const Q t158 = shuffled<0, 5, 3, 6>(t66, t66);
        const Q t159 = Q(c[24], c[24], c[31], -c[31]) * t158;
        const Q t160 = t157 + t159;
        const Q t161 = shuffled<0, 5, 3, 6>(t113, t113);
        const Q t162 = Q(c[32], c[32], c[33], -c[33]) * t161;
        const Q t163 = shuffled<0, 5, 3, 6>(t104, t104);
        const Q t164 = Q(c[34], c[34], c[35], -c[35]) * t163;
        const Q t165 = t162 - t164;
        const Q t166 = Q(c[34], c[34], c[35], c[35]) * t161;
        const Q t167 = Q(c[32], c[32], c[33], c[33]) * t163;
        const Q t168 = t166 + t167;
        const Q t169 = shuffled<0, 5, 3, 6>(t47, t47);
        const Q t170 = Q(c[36], c[36], c[37], c[37]) * t169;
        const Q t171 = shuffled<0, 5, 3, 6>(t56, t56);
        const Q t172 = Q(-c[38], -c[38], c[39], c[39]) * t171;
        const Q t173 = t170 + t172;
        const Q t174 = Q(c[38], c[38], -c[39], c[39]) * t169;
        const Q t175 = Q(c[36], c[36], c[37], -c[37]) * t171;
        const Q t176 = t174 + t175;
        const Q t177 = shuffled<0, 1, 6, 7>(t123, t138);
        const Q t178 = Q(c[40], c[40], c[25], c[25]) * t177;
        const Q t179 = shuffled<0, 1, 6, 7>(t132, t141);
        const Q t180 = Q(c[41], c[41], c[23], c[23]) * t179;
        const Q t181 = t178 + t180;
        const Q t182 = shuffled<0, 1, 6, 7>(t179, t156);
        const Q t183 = Q(c[40], c[40], c[31], c[31]) * t182;
        const Q t184 = shuffled<0, 1, 6, 7>(t177, t158);
        const Q t185 = Q(-c[41], -c[41], c[30], c[30]) * t184;
        const Q t186 = t183 + t185;
        const Q t187 = flipped<0, 0, 0, 1>(t143);
        // real block of 5
        const Q t188 = t186 - t187;
        const Q t189 = flipped<1, 1, 0, 0>(t168);
        const Q t190 = t155 + t189;
        const Q t191 = c[0] * t188;
        const P t192 = part<0>(t191);
        const Q t193 = c[1] * t190;
        const P t194 = part<0>(t193);
        const P t195 = t192 - t194;
        const P t196 = part<0>(t176);
        const P t197 = t195 + t196;
        const Q t198 = flipped<0, 0, 0, 1>(t186);
        const Q t199 = t143 + t198;
        const Q t200 = flipped<0, 0, 1, 0>(t155);
        const Q t201 = flipped<1, 1, 0, 1>(t189);
        const Q t202 = t200 + t201;
        const Q t203 = c[2] * t199;
        const P t204 = part<0>(t203);
        const Q t205 = c[3] * t202;
        const P t206 = part<0>(t205);
        const P t207 = t204 + t206;
        const Q t208 = c[1] * t188;
        const P t209 = part<0>(t208);
        const P t210 = t196 - t209;
        const Q t211 = flipped<0, 0, 0, 1>(t181);
        // real block of 5
        const Q t212 = t160 + t211;
        const Q t213 = t160 - t211;
        const Q t214 = t150 + t165;
        const Q t215 = t150 - t165;
        const Q t216 = t212 + t214;
        const Q t217 = flipped<0, 0, 1, 0>(t173);
        const Q t218 = t216 + t217;
        const Q t219 = c[0] * t212;
        const Q t220 = c[1] * t214;
        const Q t221 = t219 - t220;
        const Q t222 = t221 + t217;
        const Q t223 = c[3] * t215;
        const Q t224 = c[2] * t213;
        const Q t225 = t223 - t224;
        const Q t226 = Q(c[1], c[1], -c[1], c[1]) * t212;
        const Q t227 = t173 - t226;
        const Q t228 = flipped<0, 0, 1, 0>(t227);
        const Q t229 = c[0] * t214;
        const Q t230 = t228 + t229;
        const Q t231 = c[3] * t213;
        const Q t232 = c[2] * t215;
        const Q t233 = t231 + t232;
        const Q t234 = flipped<0, 0, 1, 0>(t190);
        const Q t235 = flipped<0, 0, 0, 1>(t188);
        // real block of 5
        const Q t236 = t234 + t235;
        const Q t237 = flipped<0, 0, 1, 1>(t176);
        const Q t238 = t236 + t237;
        const P t239 = part<1>(t193);
        const P t240 = part<1>(t176);
        const P t241 = shuffled<0, 3>(t239, t240);
        const P t242 = part<1>(t191);
        // real block of 5
        const P t243 = t241 + t242;
        const P t244 = shuffled<0, 3>(t240, t239);
        const P t245 = flipped<1, 0>(t244);
        const P t246 = t243 + t245;
        const P t247 = part<1>(t205);
        const P t248 = part<1>(t203);
        const P t249 = t247 - t248;
        const P t250 = part<1>(t208);
        // real block of 5
        const Q t251 = c[0] * t190;
        const P t252 = part<1>(t251);
        const P t253 = shuffled<0, 3>(t244, t252);
        // real block of 5
        const P t254 = t250 + t253;
        const Q t255 = joined(t210, t254);
        const Q t256 = shuffled<0, 5, 2, 7>(t251, t237);
        const Q t257 = shuffled<0, 1, 6, 7>(t251, t256);
        // real block of 5
        const Q t258 = t255 + t257;
        const Q t259 = c[3] * t199;
        const Q t260 = Q(-c[2], -c[2], c[2], c[2]) * t202;
        const Q t261 = t259 + t260;
        const P t262 = part<1>(t37);
        const P t263 = shuffled<1, 0>(t262);
        // complex block of 23
        const P t264 = c[45] * t263;
        const Q t265 = joined(t136, t264);
        // spectrum block of 11, multiplier 2
        const Q t266 = Q(c[42], c[42], c[42], -c[42]) * t218;
        const Q t267 = t265 - t266;
        const Q t268 = Q(-c[14], -c[14], c[14], c[14]) * t258;
        const Q t269 = Q(c[15], c[15], -c[15], c[15]) * t261;
        const Q t270 = t268 + t269;
        const Q t271 = c[15] * t258;
        const Q t272 = Q(c[14], c[14], c[14], -c[14]) * t261;
        const Q t273 = t271 + t272;
        const Q t274 = c[16] * t222;
        const Q t275 = c[17] * t225;
        const Q t276 = t274 + t275;
        const Q t277 = c[16] * t225;
        const Q t278 = c[17] * t222;
        const Q t279 = t277 - t278;
        const Q t280 = joined(t197, t246);
        const Q t281 = c[18] * t280;
        const Q t282 = joined(t207, t249);
        const Q t283 = Q(c[19], c[19], c[19], -c[19]) * t282;
        const Q t284 = t281 + t283;
        const Q t285 = c[18] * t282;
        const Q t286 = Q(c[19], c[19], c[19], -c[19]) * t280;
        const Q t287 = t285 - t286;
        const Q t288 = c[20] * t230;
        const Q t289 = c[21] * t233;
        const Q t290 = t288 + t289;
        const Q t291 = c[20] * t233;
        const Q t292 = c[21] * t230;
        const Q t293 = t291 - t292;
        const Q t294 = c[43] * t238;
        const Q t295 = flipped<0, 0, 0, 1>(t267);
        // spectrum block of 2
        const Q t296 = t294 + t295;
        const Q t297 = flipped<0, 0, 0, 1>(t294);
        const Q t298 = t267 - t297;
        // complex block of 2
        const Q t299 = t279 - t287;
        const Q t300 = flipped<0, 0, 0, 1>(t284);
        const Q t301 = t276 - t300;
        const Q t302 = t279 + t287;
        const Q t303 = t276 + t300;
        const Q t304 = flipped<0, 0, 1, 0>(t273);
        // complex block of 2
        const Q t305 = t293 - t304;
        const Q t306 = flipped<0, 0, 0, 1>(t290);
        const Q t307 = t270 - t306;
        const Q t308 = t293 + t304;
        const Q t309 = t270 + t306;
        const Q t310 = flipped<0, 0, 0, 1>(t307);
        // spectrum block of 5, multiplier 2
        const Q t311 = t301 + t310;
        const Q t312 = t311 + t296;
        const Q t313 = c[0] * t301;
        const Q t314 = Q(c[1], c[1], c[1], -c[1]) * t307;
        const Q t315 = t313 - t314;
        const Q t316 = t315 + t296;
        const Q t317 = c[2] * t299;
        const Q t318 = c[3] * t305;
        const Q t319 = t317 + t318;
        const Q t320 = t316 - t319;
        const Q t321 = t316 + t319;
        const Q t322 = c[1] * t301;
        const Q t323 = t296 - t322;
        const Q t324 = Q(c[0], c[0], c[0], -c[0]) * t307;
        const Q t325 = t323 + t324;
        const Q t326 = c[3] * t299;
        const Q t327 = c[2] * t305;
        const Q t328 = t326 - t327;
        const Q t329 = t325 - t328;
        const Q t330 = t325 + t328;
        const Q t331 = flipped<0, 0, 0, 1>(t309);
        // spectrum block of 5, multiplier 2
        const Q t332 = t303 - t331;
        const Q t333 = flipped<0, 0, 0, 1>(t298);
        const Q t334 = t332 + t333;
        const Q t335 = c[0] * t303;
        const Q t336 = Q(c[1], c[1], c[1], -c[1]) * t309;
        const Q t337 = t335 + t336;
        const Q t338 = t337 + t333;
        const Q t339 = c[2] * t302;
        const Q t340 = c[3] * t308;
        const Q t341 = t339 + t340;
        const Q t342 = t338 - t341;
        const Q t343 = t338 + t341;
        const Q t344 = Q(c[1], c[1], c[1], -c[1]) * t303;
        const Q t345 = t298 - t344;
        const Q t346 = flipped<0, 0, 0, 1>(t345);
        const Q t347 = Q(c[0], c[0], c[0], -c[0]) * t309;
        const Q t348 = t346 - t347;
        const Q t349 = c[3] * t302;
        const Q t350 = c[2] * t308;
        const Q t351 = t349 - t350;
        const Q t352 = t348 - t351;
        const Q t353 = t348 + t351;
        const Q t354 = flipped<0, 0, 0, 1>(t265);
        // spectrum block of 11, multiplier 2
        const Q t355 = t218 + t354;
        const Q t356 = shuffled<0, 1, 4, 5>(t355, t312);
        const Q t357 = shuffled<2, 3, 6, 7>(t355, t312);
        // spectrum block of 2
        const Q t358 = t356 + t357;
        io.pairs(1, 12, t358);
        const Q t359 = t356 - t357;
        io.pairs(22, 11, t359);
        const Q t360 = shuffled<0, 1, 4, 5>(t343, t329);
        const Q t361 = shuffled<2, 3, 6, 7>(t343, t329);
        // spectrum block of 2
        const Q t362 = t360 + t361;
        io.pairs(6, 3, t362);
        const Q t363 = t360 - t361;
        io.pairs(17, 20, t363);
        const Q t364 = shuffled<0, 1, 4, 5>(t330, t320);
        const Q t365 = shuffled<2, 3, 6, 7>(t330, t320);
        // spectrum block of 2
        const Q t366 = t364 + t365;
        io.pairs(13, 18, t366);
        const Q t367 = t364 - t365;
        io.pairs(10, 5, t367);
        const Q t368 = shuffled<0, 1, 4, 5>(t342, t353);
        const Q t369 = shuffled<2, 3, 6, 7>(t342, t353);
        // spectrum block of 2
        const Q t370 = t368 + t369;
        io.pairs(9, 16, t370);
        const Q t371 = t368 - t369;
        io.pairs(14, 7, t371);
        const Q t372 = shuffled<0, 1, 4, 5>(t352, t321);
        const Q t373 = shuffled<2, 3, 6, 7>(t352, t321);
        // spectrum block of 2
        const Q t374 = t372 + t373;
        io.pairs(8, 4, t374);
        const Q t375 = t372 - t373;
        io.pairs(15, 19, t375);
        const P t376 = part<0>(t334);
        const P t377 = part<1>(t334);
        // spectrum block of 2
        const P t378 = t376 + t377;
        io.pair(2, t378);
        const P t379 = t376 - t377;
        io.pair(21, t379);
    }
};

}  // namespace zulg
