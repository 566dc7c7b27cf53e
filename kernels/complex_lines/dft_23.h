// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 23.
// Complex DFT of 23 points, Rader block; two lines of a stage to a register.
// 95 sums, 73 differences, 122 products of registers, which do the 1174 steps of the graph, those with
// `scale` included; 62 shuffles, 22 changes of sign.
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
        0.7557495743542583,  // c[7]: -sin 2 pi 18/11
        0.28173255684142967,  // c[8]: -sin 2 pi 6/11
        0.14231483827328514,  // c[9]: -cos 2 pi 8/11
        0.9898214418809327,  // c[10]: -sin 2 pi 8/11
        0.5406408174555976,  // c[11]: sin 2 pi 12/11
        0.8412535328311812,  // c[12]: cos 2 pi 12/11
        0.9096319953545183,  // c[13]: sin 2 pi 2/11
        0.6262008235209833,  // c[14]: -Q[1] of 11
        0.21879791731559586,  // c[15]: P[1] of 11
        0.030342906933726127,  // c[16]: -P[4] of 11
        0.6626305969383026,  // c[17]: -Q[4] of 11
        0.5457579199356125,  // c[18]: P[2] of 11
        0.3770255864361907,  // c[19]: -Q[2] of 11
        0.6150936508690751,  // c[20]: -Q[3] of 11
        0.24831391555962465,  // c[21]: -P[3] of 11
        0.04453017869194607,  // c[22]: P[2] of 23
        0.43504853203320293,  // c[23]: -Q[9] of 23
        0.43370463199482034,  // c[24]: Q[2] of 23
        0.028555549440596593,  // c[25]: -P[9] of 23
        0.22644695169903334,  // c[26]: Q[4] of 23
        0.06955203016683642,  // c[27]: P[1] of 23
        0.37256465572342584,  // c[28]: P[4] of 23
        0.4304011613922187,  // c[29]: Q[1] of 23
        0.4300007996022861,  // c[30]: P[10] of 23
        0.3989562961623703,  // c[31]: Q[7] of 23
        0.07198581089002037,  // c[32]: -Q[10] of 23
        0.17583093692664623,  // c[33]: P[7] of 23
        0.16641042622004737,  // c[34]: P[6] of 23
        0.43594373606982356,  // c[35]: P[5] of 23
        0.4029766924691319,  // c[36]: Q[6] of 23
        0.005975249750696167,  // c[37]: -Q[5] of 23
        0.43595445213547385,  // c[38]: -Q[8] of 23
        0.27718353274096963,  // c[39]: P[3] of 23
        0.005134227435360646,  // c[40]: -P[8] of 23
        0.33652924658242556,  // c[41]: -Q[3] of 23
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
        const P x12 = io.pair(12);
        const P x11 = io.pair(11);
        // real block of 2
        const P t2 = x12 + x11;
        const P t3 = x12 - x11;
        const Q t4 = shuffled<2, 3, 6, 7>(t0, t1);
        const Q t5 = joined(t2, t3);
        // real block of 11, multiplier 2
        const Q t6 = t4 + t5;
        const Q t7 = t4 - t5;
        const Q x3_6 = io.pairs(3, 6);
        const Q x20_17 = io.pairs(20, 17);
        // real block of 2
        const Q t8 = x3_6 + x20_17;
        const Q t9 = x3_6 - x20_17;
        const Q x4_8 = io.pairs(4, 8);
        const Q x19_15 = io.pairs(19, 15);
        // real block of 2
        const Q t10 = x4_8 + x19_15;
        const Q t11 = x4_8 - x19_15;
        const Q t12 = shuffled<2, 3, 6, 7>(t8, t9);
        const Q t13 = shuffled<0, 1, 4, 5>(t10, t11);
        // real block of 11, multiplier 2
        const Q t14 = t12 + t13;
        const Q t15 = t12 - t13;
        const Q t16 = shuffled<2, 3, 6, 7>(t10, t11);
        const Q t17 = shuffled<0, 1, 4, 5>(t8, t9);
        const Q t18 = t16 + t17;
        const Q t19 = t16 - t17;
        const Q x18_13 = io.pairs(18, 13);
        const Q x5_10 = io.pairs(5, 10);
        // real block of 2
        const Q t20 = x18_13 + x5_10;
        const Q t21 = x18_13 - x5_10;
        const Q x16_9 = io.pairs(16, 9);
        const Q x7_14 = io.pairs(7, 14);
        // real block of 2
        const Q t22 = x16_9 + x7_14;
        const Q t23 = x16_9 - x7_14;
        const Q t24 = shuffled<0, 1, 4, 5>(t22, t23);
        const Q t25 = shuffled<2, 3, 6, 7>(t20, t21);
        // real block of 11, multiplier 2
        const Q t26 = t24 - t25;
        const Q t27 = t24 + t25;
        const Q t28 = shuffled<0, 1, 4, 5>(t20, t21);
        const Q t29 = shuffled<2, 3, 6, 7>(t22, t23);
        const Q t30 = t28 + t29;
        const Q t31 = t28 - t29;
        const Q t32 = t6 + t14;
        const Q t33 = c[4] * t6;
        const Q t34 = c[5] * t14;
        const Q t35 = t33 - t34;
        const Q t36 = c[6] * t18;
        const Q t37 = t35 - t36;
        const Q t38 = c[7] * t15;
        const Q t39 = c[8] * t19;
        const Q t40 = t38 + t39;
        const Q t41 = shuffled<0, 1, 4, 5>(t0, t1);
        const Q t42 = c[5] * t6;
        const Q t43 = t41 - t42;
        const Q t44 = c[9] * t14;
        const Q t45 = t43 - t44;
        const Q t46 = c[7] * t7;
        const Q t47 = c[10] * t15;
        const Q t48 = t46 + t47;
        const Q t49 = c[11] * t19;
        const Q t50 = t48 + t49;
        const Q t51 = c[6] * t6;
        const Q t52 = t41 - t51;
        const Q t53 = c[12] * t14;
        const Q t54 = t52 + t53;
        const Q t55 = c[8] * t7;
        const Q t56 = c[11] * t15;
        const Q t57 = t55 + t56;
        const Q t58 = c[7] * t19;
        const Q t59 = t57 + t58;
        const Q t60 = c[9] * t6;
        const Q t61 = t41 - t60;
        const Q t62 = c[6] * t14;
        const Q t63 = t61 - t62;
        const Q t64 = c[10] * t7;
        const Q t65 = c[8] * t15;
        const Q t66 = t64 + t65;
        const Q t67 = c[11] * t26;
        const Q t68 = t66 + t67;
        const Q t69 = c[12] * t6;
        const Q t70 = c[4] * t14;
        const Q t71 = t69 + t70;
        const Q t72 = c[9] * t18;
        const Q t73 = t71 - t72;
        const Q t74 = c[11] * t7;
        const Q t75 = c[10] * t19;
        const Q t76 = t74 + t75;
        const Q t77 = c[7] * t26;
        const Q t78 = t76 + t77;
        const Q t79 = t32 + t18;
        const Q t80 = t79 + t27;
        const Q t81 = t80 + t30;
        const Q t82 = t81 + t41;
        const Q t83 = c[9] * t27;
        const Q t84 = t37 - t83;
        const Q t85 = c[12] * t30;
        const Q t86 = t84 + t85;
        const Q t87 = t86 + t41;
        const Q t88 = c[10] * t26;
        const Q t89 = t40 + t88;
        const Q t90 = c[13] * t7;
        const Q t91 = t89 - t90;
        const Q t92 = c[11] * t31;
        const Q t93 = t91 - t92;
        const Q t94 = shuffled<0, 5, 3, 6>(t87, t87);
        // complex block of 23
        const Q t95 = Q(c[22], c[22], c[23], c[23]) * t94;
        const Q t96 = shuffled<0, 5, 3, 6>(t93, t93);
        const Q t97 = Q(-c[24], -c[24], c[25], c[25]) * t96;
        const Q t98 = t95 + t97;
        const Q t99 = Q(c[24], c[24], -c[25], c[25]) * t94;
        const Q t100 = Q(c[22], c[22], c[23], -c[23]) * t96;
        const Q t101 = t99 + t100;
        // real block of 11, multiplier 2
        const Q t102 = c[12] * t18;
        const Q t103 = t45 + t102;
        const Q t104 = c[6] * t27;
        const Q t105 = t103 - t104;
        const Q t106 = c[4] * t30;
        const Q t107 = t105 + t106;
        const Q t108 = c[8] * t26;
        const Q t109 = t50 + t108;
        const Q t110 = c[13] * t31;
        const Q t111 = t109 + t110;
        const Q t112 = c[13] * t15;
        const Q t113 = t78 - t112;
        const Q t114 = c[8] * t31;
        const Q t115 = t113 - t114;
        const Q t116 = c[5] * t27;
        const Q t117 = t73 - t116;
        const Q t118 = c[6] * t30;
        const Q t119 = t117 - t118;
        const Q t120 = t119 + t41;
        const Q t121 = shuffled<1, 0, 3, 2>(t120);
        const Q t122 = shuffled<0, 1, 6, 7>(t107, t121);
        // complex block of 23
        const Q t123 = Q(c[26], c[26], c[27], -c[27]) * t122;
        const Q t124 = shuffled<1, 0, 3, 2>(t115);
        const Q t125 = shuffled<0, 1, 6, 7>(t111, t124);
        const Q t126 = Q(c[28], c[28], c[29], -c[29]) * t125;
        const Q t127 = t123 - t126;
        const Q t128 = shuffled<1, 0, 3, 2>(t111);
        const Q t129 = shuffled<0, 1, 6, 7>(t115, t128);
        const Q t130 = Q(c[30], c[30], c[31], c[31]) * t129;
        const Q t131 = shuffled<1, 0, 3, 2>(t107);
        const Q t132 = shuffled<0, 1, 6, 7>(t120, t131);
        const Q t133 = Q(-c[32], -c[32], c[33], c[33]) * t132;
        const Q t134 = t130 + t133;
        const Q t135 = flipped<0, 0, 0, 1>(t127);
        // real block of 5
        const Q t136 = t134 - t135;
        const Q t137 = shuffled<0, 1, 6, 7>(t125, t129);
        // complex block of 23
        const Q t138 = Q(c[26], c[26], -c[33], c[33]) * t137;
        const Q t139 = shuffled<0, 1, 6, 7>(t122, t132);
        const Q t140 = Q(c[28], c[28], c[31], -c[31]) * t139;
        const Q t141 = t138 + t140;
        const Q t142 = shuffled<0, 1, 6, 7>(t132, t122);
        const Q t143 = Q(c[30], c[30], c[29], c[29]) * t142;
        const Q t144 = shuffled<0, 1, 6, 7>(t129, t125);
        const Q t145 = Q(c[32], c[32], c[27], c[27]) * t144;
        const Q t146 = t143 + t145;
        const Q t147 = flipped<0, 0, 0, 1>(t146);
        // real block of 5
        const Q t148 = t141 + t147;
        // real block of 11, multiplier 2
        const Q t149 = c[5] * t18;
        const Q t150 = t54 - t149;
        const Q t151 = c[4] * t27;
        const Q t152 = t150 + t151;
        const Q t153 = c[9] * t30;
        const Q t154 = t152 - t153;
        const Q t155 = c[13] * t26;
        const Q t156 = t59 - t155;
        const Q t157 = c[10] * t31;
        const Q t158 = t156 - t157;
        const Q t159 = c[4] * t18;
        const Q t160 = t63 + t159;
        const Q t161 = c[12] * t27;
        const Q t162 = t160 + t161;
        const Q t163 = c[5] * t30;
        const Q t164 = t162 - t163;
        const Q t165 = c[13] * t19;
        const Q t166 = t68 - t165;
        const Q t167 = c[7] * t31;
        const Q t168 = t166 - t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t158);
        const Q t170 = shuffled<0, 1, 6, 7>(t154, t169);
        // complex block of 23
        const Q t171 = Q(c[34], c[34], c[35], -c[35]) * t170;
        const Q t172 = shuffled<1, 0, 3, 2>(t154);
        const Q t173 = shuffled<0, 1, 6, 7>(t158, t172);
        const Q t174 = Q(c[36], c[36], c[37], -c[37]) * t173;
        const Q t175 = t171 - t174;
        const Q t176 = shuffled<0, 5, 3, 6>(t168, t168);
        const Q t177 = Q(c[38], c[38], c[39], -c[39]) * t176;
        const Q t178 = shuffled<0, 5, 3, 6>(t164, t164);
        const Q t179 = Q(c[40], c[40], c[41], -c[41]) * t178;
        const Q t180 = t177 - t179;
        // real block of 5
        const Q t181 = t175 + t180;
        const Q t182 = shuffled<0, 1, 6, 7>(t173, t170);
        // complex block of 23
        const Q t183 = Q(c[34], c[34], c[37], c[37]) * t182;
        const Q t184 = shuffled<0, 1, 6, 7>(t170, t173);
        const Q t185 = Q(c[36], c[36], c[35], c[35]) * t184;
        const Q t186 = t183 + t185;
        const Q t187 = Q(c[40], c[40], c[41], c[41]) * t176;
        const Q t188 = Q(c[38], c[38], c[39], c[39]) * t178;
        const Q t189 = t187 + t188;
        const Q t190 = flipped<1, 1, 0, 0>(t189);
        // real block of 5
        const Q t191 = t186 + t190;
        const P x0 = io.pair(0);
        const P t192 = part<0>(t82);
        // complex block of 23
        const P t193 = x0 + t192;
        io.pair(0, t193);
        const P t194 = c[44] * t192;
        const P t195 = x0 - t194;
        // real block of 5
        const Q t196 = t148 + t181;
        const Q t197 = flipped<0, 0, 1, 0>(t98);
        const Q t198 = t196 + t197;
        const Q t199 = flipped<0, 0, 1, 0>(t191);
        const Q t200 = flipped<0, 0, 0, 1>(t136);
        // real block of 5
        const Q t201 = t199 + t200;
        const Q t202 = flipped<0, 0, 1, 1>(t101);
        const Q t203 = t201 + t202;
        const P t204 = part<1>(t82);
        const P t205 = shuffled<1, 0>(t204);
        // complex block of 23
        const P t206 = c[45] * t205;
        const Q t207 = joined(t195, t206);
        // spectrum block of 11, multiplier 2
        const Q t208 = Q(c[42], c[42], c[42], -c[42]) * t198;
        const Q t209 = t207 - t208;
        const Q t210 = c[43] * t203;
        const Q t211 = flipped<0, 0, 0, 1>(t209);
        // spectrum block of 2
        const Q t212 = t210 + t211;
        const Q t213 = flipped<0, 0, 0, 1>(t210);
        const Q t214 = t209 - t213;
        // real block of 5
        const Q t215 = c[0] * t136;
        const P t216 = part<0>(t215);
        const Q t217 = c[1] * t191;
        const P t218 = part<0>(t217);
        const P t219 = t216 - t218;
        const P t220 = part<1>(t217);
        const P t221 = part<1>(t101);
        const P t222 = shuffled<0, 3>(t220, t221);
        const P t223 = part<1>(t215);
        // real block of 5
        const P t224 = t222 + t223;
        const P t225 = part<0>(t202);
        // real block of 5
        const P t226 = t219 + t225;
        const P t227 = shuffled<0, 3>(t221, t220);
        const P t228 = flipped<1, 0>(t227);
        // real block of 5
        const P t229 = t224 + t228;
        const Q t230 = flipped<0, 0, 0, 1>(t134);
        // real block of 5
        const Q t231 = t127 + t230;
        const Q t232 = flipped<0, 0, 1, 0>(t186);
        const Q t233 = flipped<1, 1, 0, 1>(t190);
        const Q t234 = t232 + t233;
        const Q t235 = c[2] * t231;
        const P t236 = part<0>(t235);
        const Q t237 = c[3] * t234;
        const P t238 = part<0>(t237);
        const P t239 = t236 + t238;
        const P t240 = part<1>(t237);
        const P t241 = part<1>(t235);
        // real block of 5
        const P t242 = t240 - t241;
        // real block of 5
        const Q t243 = c[3] * t231;
        const Q t244 = Q(-c[2], -c[2], c[2], c[2]) * t234;
        const Q t245 = t243 + t244;
        const Q t246 = c[1] * t136;
        const P t247 = part<0>(t246);
        const P t248 = t225 - t247;
        const P t249 = part<1>(t246);
        const Q t250 = c[0] * t191;
        const P t251 = part<1>(t250);
        const P t252 = shuffled<0, 3>(t227, t251);
        // real block of 5
        const P t253 = t249 + t252;
        const Q t254 = joined(t248, t253);
        const Q t255 = shuffled<0, 5, 2, 7>(t250, t202);
        const Q t256 = shuffled<0, 1, 6, 7>(t250, t255);
        // real block of 5
        const Q t257 = t254 + t256;
        // real block of 5
        const Q t258 = t141 - t147;
        const Q t259 = t175 - t180;
        const Q t260 = c[3] * t259;
        const Q t261 = c[2] * t258;
        const Q t262 = t260 - t261;
        const Q t263 = c[3] * t258;
        const Q t264 = c[2] * t259;
        const Q t265 = t263 + t264;
        const Q t266 = c[0] * t148;
        const Q t267 = c[1] * t181;
        const Q t268 = t266 - t267;
        const Q t269 = t268 + t197;
        const Q t270 = Q(c[1], c[1], -c[1], c[1]) * t148;
        const Q t271 = t98 - t270;
        const Q t272 = flipped<0, 0, 1, 0>(t271);
        const Q t273 = c[0] * t181;
        const Q t274 = t272 + t273;
        // spectrum block of 11, multiplier 2
        const Q t275 = Q(-c[14], -c[14], c[14], c[14]) * t257;
        const Q t276 = Q(c[15], c[15], -c[15], c[15]) * t245;
        const Q t277 = t275 + t276;
        const Q t278 = c[16] * t274;
        const Q t279 = c[17] * t265;
        const Q t280 = t278 + t279;
        const Q t281 = flipped<0, 0, 0, 1>(t280);
        // complex block of 2
        const Q t282 = t277 - t281;
        const Q t283 = t277 + t281;
        // spectrum block of 11, multiplier 2
        const Q t284 = c[15] * t257;
        const Q t285 = Q(c[14], c[14], c[14], -c[14]) * t245;
        const Q t286 = t284 + t285;
        const Q t287 = c[18] * t269;
        const Q t288 = c[19] * t262;
        const Q t289 = t287 + t288;
        const Q t290 = joined(t226, t229);
        const Q t291 = c[20] * t290;
        const Q t292 = joined(t239, t242);
        const Q t293 = Q(c[21], c[21], c[21], -c[21]) * t292;
        const Q t294 = t291 + t293;
        const Q t295 = flipped<0, 0, 0, 1>(t294);
        // complex block of 2
        const Q t296 = t289 - t295;
        const Q t297 = t289 + t295;
        // spectrum block of 11, multiplier 2
        const Q t298 = c[18] * t262;
        const Q t299 = c[19] * t269;
        const Q t300 = t298 - t299;
        const Q t301 = c[20] * t292;
        const Q t302 = Q(c[21], c[21], c[21], -c[21]) * t290;
        const Q t303 = t301 - t302;
        const Q t304 = c[16] * t265;
        const Q t305 = c[17] * t274;
        const Q t306 = t304 - t305;
        // complex block of 2
        const Q t307 = t300 - t303;
        const Q t308 = flipped<0, 0, 1, 0>(t286);
        // complex block of 2
        const Q t309 = t306 - t308;
        // spectrum block of 5, multiplier 2
        const Q t310 = c[2] * t307;
        const Q t311 = c[3] * t309;
        const Q t312 = t310 + t311;
        const Q t313 = c[3] * t307;
        const Q t314 = c[2] * t309;
        const Q t315 = t313 - t314;
        // complex block of 2
        const Q t316 = t300 + t303;
        // complex block of 2
        const Q t317 = t306 + t308;
        // spectrum block of 5, multiplier 2
        const Q t318 = c[2] * t316;
        const Q t319 = c[3] * t317;
        const Q t320 = t318 + t319;
        const Q t321 = c[3] * t316;
        const Q t322 = c[2] * t317;
        const Q t323 = t321 - t322;
        // spectrum block of 5, multiplier 2
        const Q t324 = c[0] * t296;
        const Q t325 = Q(c[1], c[1], c[1], -c[1]) * t282;
        const Q t326 = t324 - t325;
        const Q t327 = t326 + t212;
        const Q t328 = c[1] * t296;
        const Q t329 = t212 - t328;
        const Q t330 = Q(c[0], c[0], c[0], -c[0]) * t282;
        const Q t331 = t329 + t330;
        // spectrum block of 5, multiplier 2
        const Q t332 = c[0] * t297;
        const Q t333 = Q(c[1], c[1], c[1], -c[1]) * t283;
        const Q t334 = t332 + t333;
        const Q t335 = flipped<0, 0, 0, 1>(t214);
        const Q t336 = t334 + t335;
        const Q t337 = Q(c[1], c[1], c[1], -c[1]) * t297;
        const Q t338 = t214 - t337;
        const Q t339 = flipped<0, 0, 0, 1>(t338);
        const Q t340 = Q(c[0], c[0], c[0], -c[0]) * t283;
        const Q t341 = t339 - t340;
        // spectrum block of 5, multiplier 2
        const Q t342 = t327 - t312;
        const Q t343 = t331 + t315;
        const Q t344 = shuffled<0, 1, 4, 5>(t343, t342);
        const Q t345 = shuffled<2, 3, 6, 7>(t343, t342);
        // spectrum block of 2
        const Q t346 = t344 + t345;
        io.pairs(13, 18, t346);
        const Q t347 = t344 - t345;
        io.pairs(10, 5, t347);
        // spectrum block of 5, multiplier 2
        const Q t348 = t327 + t312;
        // spectrum block of 5, multiplier 2
        const Q t349 = t341 - t323;
        const Q t350 = shuffled<0, 1, 4, 5>(t349, t348);
        const Q t351 = shuffled<2, 3, 6, 7>(t349, t348);
        // spectrum block of 2
        const Q t352 = t350 + t351;
        io.pairs(8, 4, t352);
        const Q t353 = t350 - t351;
        io.pairs(15, 19, t353);
        // spectrum block of 5, multiplier 2
        const Q t354 = t331 - t315;
        // spectrum block of 5, multiplier 2
        const Q t355 = t336 + t320;
        const Q t356 = shuffled<0, 1, 4, 5>(t355, t354);
        const Q t357 = shuffled<2, 3, 6, 7>(t355, t354);
        // spectrum block of 2
        const Q t358 = t356 + t357;
        io.pairs(6, 3, t358);
        const Q t359 = t356 - t357;
        io.pairs(17, 20, t359);
        // spectrum block of 5, multiplier 2
        const Q t360 = t336 - t320;
        const Q t361 = t341 + t323;
        const Q t362 = shuffled<0, 1, 4, 5>(t360, t361);
        const Q t363 = shuffled<2, 3, 6, 7>(t360, t361);
        // spectrum block of 2
        const Q t364 = t362 + t363;
        io.pairs(9, 16, t364);
        const Q t365 = t362 - t363;
        io.pairs(14, 7, t365);
        const Q t366 = flipped<0, 0, 0, 1>(t282);
        // spectrum block of 5, multiplier 2
        const Q t367 = t296 + t366;
        const Q t368 = t367 + t212;
        const Q t369 = flipped<0, 0, 0, 1>(t207);
        // spectrum block of 11, multiplier 2
        const Q t370 = t198 + t369;
        const Q t371 = shuffled<0, 1, 4, 5>(t370, t368);
        const Q t372 = shuffled<2, 3, 6, 7>(t370, t368);
        // spectrum block of 2
        const Q t373 = t371 + t372;
        io.pairs(1, 12, t373);
        const Q t374 = t371 - t372;
        io.pairs(22, 11, t374);
        const Q t375 = flipped<0, 0, 0, 1>(t283);
        // spectrum block of 5, multiplier 2
        const Q t376 = t297 - t375;
        const Q t377 = t376 + t335;
        const P t378 = part<0>(t377);
        const P t379 = part<1>(t377);
        // spectrum block of 2
        const P t380 = t378 + t379;
        io.pair(2, t380);
        const P t381 = t378 - t379;
        io.pair(21, t381);
    }
};

}  // namespace zulg
