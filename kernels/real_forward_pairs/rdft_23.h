// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 23.
// Forward DFT of 23 real points, Rader 2, 11; two lanes to a register.
// 89 sums, 63 differences, 122 products of registers, which do the 565 steps of the graph, those with
// `scale` included; 45 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<23> {
    static constexpr int steps = 565;  // with `scale`
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
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
        0.635213297150478,  // c[14]: -Q[1] of 11
        0.19106037559687397,  // c[15]: -P[1] of 11
        0.5272211128649671,  // c[16]: P[2] of 11
        0.4025393125514894,  // c[17]: Q[2] of 11
        0.4262349587304204,  // c[18]: Q[3] of 11
        0.5082556049431003,  // c[19]: -P[3] of 11
        0.41403241996621415,  // c[20]: P[4] of 11
        0.5182443007085755,  // c[21]: Q[4] of 11
        0.06955203016683642,  // c[22]: P[1] of 23
        0.4304011613922187,  // c[23]: -Q[1] of 23
        0.04453017869194607,  // c[24]: P[2] of 23
        0.43370463199482034,  // c[25]: Q[2] of 23
        0.33652924658242556,  // c[26]: Q[3] of 23
        0.27718353274096963,  // c[27]: P[3] of 23
        0.22644695169903334,  // c[28]: Q[4] of 23
        0.37256465572342584,  // c[29]: P[4] of 23
        0.005975249750696167,  // c[30]: Q[5] of 23
        0.43594373606982356,  // c[31]: P[5] of 23
        0.16641042622004737,  // c[32]: P[6] of 23
        0.4029766924691319,  // c[33]: Q[6] of 23
        0.17583093692664623,  // c[34]: P[7] of 23
        0.3989562961623703,  // c[35]: -Q[7] of 23
        0.005134227435360646,  // c[36]: -P[8] of 23
        0.43595445213547385,  // c[37]: -Q[8] of 23
        0.028555549440596593,  // c[38]: -P[9] of 23
        0.43504853203320293,  // c[39]: Q[9] of 23
        0.4300007996022861,  // c[40]: P[10] of 23
        0.07198581089002037,  // c[41]: -Q[10] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: -beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x22_21 = io.in(22, 21);
        // real block of 2
        const P t0 = x1_2 + x22_21;
        const P t1 = x1_2 - x22_21;
        const P x4_8 = io.in(4, 8);
        const P x19_15 = io.in(19, 15);
        // real block of 2
        const P t2 = x4_8 + x19_15;
        const P t3 = x4_8 - x19_15;
        const P x16_9 = io.in(16, 9);
        const P x7_14 = io.in(7, 14);
        // real block of 2
        const P t4 = x16_9 + x7_14;
        const P t5 = x16_9 - x7_14;
        const P x18_13 = io.in(18, 13);
        const P x5_10 = io.in(5, 10);
        // real block of 2
        const P t6 = x18_13 + x5_10;
        const P t7 = x18_13 - x5_10;
        const P x3_6 = io.in(3, 6);
        const P x20_17 = io.in(20, 17);
        // real block of 2
        const P t8 = x3_6 + x20_17;
        const P t9 = x3_6 - x20_17;
        const V x12 = io.in(12);
        const V x11 = io.in(11);
        // real block of 2
        const V t10 = x12 + x11;
        const V t11 = x12 - x11;
        const P t12 = shuffled<1, 3>(t0, t1);
        const P t13 = joined(t10, t11);
        // real block of 11, multiplier 2
        const P t14 = t12 + t13;
        const P t15 = t12 - t13;
        const P t16 = shuffled<1, 3>(t8, t9);
        const P t17 = shuffled<0, 2>(t2, t3);
        const P t18 = t16 + t17;
        const P t19 = t16 - t17;
        const P t20 = shuffled<1, 3>(t2, t3);
        const P t21 = shuffled<0, 2>(t8, t9);
        const P t22 = t20 + t21;
        const P t23 = t20 - t21;
        const P t24 = shuffled<0, 2>(t4, t5);
        const P t25 = shuffled<1, 3>(t6, t7);
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        const P t28 = shuffled<0, 2>(t6, t7);
        const P t29 = shuffled<1, 3>(t4, t5);
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        const P t32 = t14 + t18;
        const P t33 = t32 + t22;
        const P t34 = t33 + t26;
        const P t35 = t34 + t30;
        const P t36 = shuffled<0, 2>(t0, t1);
        const P t37 = t35 + t36;
        const P t38 = c[4] * t14;
        const P t39 = c[5] * t18;
        const P t40 = t38 - t39;
        const P t41 = c[6] * t22;
        const P t42 = t40 - t41;
        const P t43 = c[7] * t26;
        const P t44 = t42 - t43;
        const P t45 = c[8] * t30;
        const P t46 = t44 + t45;
        const P t47 = t46 + t36;
        const P t48 = c[9] * t19;
        const P t49 = c[10] * t23;
        const P t50 = t48 + t49;
        const P t51 = c[11] * t27;
        const P t52 = t50 + t51;
        const P t53 = c[12] * t15;
        const P t54 = t52 - t53;
        const P t55 = c[13] * t31;
        const P t56 = t54 - t55;
        const P t57 = c[5] * t14;
        const P t58 = t36 - t57;
        const P t59 = c[7] * t18;
        const P t60 = t58 - t59;
        const P t61 = c[8] * t22;
        const P t62 = t60 + t61;
        const P t63 = c[6] * t26;
        const P t64 = t62 - t63;
        const P t65 = c[4] * t30;
        const P t66 = t64 + t65;
        const P t67 = c[9] * t15;
        const P t68 = c[11] * t19;
        const P t69 = t67 + t68;
        const P t70 = c[13] * t23;
        const P t71 = t69 + t70;
        const P t72 = c[10] * t27;
        const P t73 = t71 + t72;
        const P t74 = c[12] * t31;
        const P t75 = t73 + t74;
        const P t76 = c[6] * t14;
        const P t77 = t36 - t76;
        const P t78 = c[8] * t18;
        const P t79 = t77 + t78;
        const P t80 = c[5] * t22;
        const P t81 = t79 - t80;
        const P t82 = c[4] * t26;
        const P t83 = t81 + t82;
        const P t84 = c[7] * t30;
        const P t85 = t83 - t84;
        const P t86 = c[10] * t15;
        const P t87 = c[13] * t19;
        const P t88 = t86 + t87;
        const P t89 = c[9] * t23;
        const P t90 = t88 + t89;
        const P t91 = c[12] * t27;
        const P t92 = t90 - t91;
        const P t93 = c[11] * t31;
        const P t94 = t92 - t93;
        const P t95 = c[7] * t14;
        const P t96 = t36 - t95;
        const P t97 = c[6] * t18;
        const P t98 = t96 - t97;
        const P t99 = c[4] * t22;
        const P t100 = t98 + t99;
        const P t101 = c[8] * t26;
        const P t102 = t100 + t101;
        const P t103 = c[5] * t30;
        const P t104 = t102 - t103;
        const P t105 = c[11] * t15;
        const P t106 = c[10] * t19;
        const P t107 = t105 + t106;
        const P t108 = c[13] * t27;
        const P t109 = t107 + t108;
        const P t110 = c[12] * t23;
        const P t111 = t109 - t110;
        const P t112 = c[9] * t31;
        const P t113 = t111 - t112;
        const P t114 = c[8] * t14;
        const P t115 = c[4] * t18;
        const P t116 = t114 + t115;
        const P t117 = c[7] * t22;
        const P t118 = t116 - t117;
        const P t119 = c[5] * t26;
        const P t120 = t118 - t119;
        const P t121 = c[6] * t30;
        const P t122 = t120 - t121;
        const P t123 = t122 + t36;
        const P t124 = c[13] * t15;
        const P t125 = c[11] * t23;
        const P t126 = t124 + t125;
        const P t127 = c[9] * t27;
        const P t128 = t126 + t127;
        const P t129 = c[12] * t19;
        const P t130 = t128 - t129;
        const P t131 = c[10] * t31;
        const P t132 = t130 - t131;
        const V x0 = io.in(0);
        const V t133 = part<0>(t37);
        // real block of 23
        const V t134 = x0 + t133;
        io.re(0, t134);
        const V t135 = c[44] * t133;
        const V t136 = x0 - t135;
        const P t137 = shuffled<1, 3>(t123, t132);
        const P t138 = c[22] * t137;
        const P t139 = shuffled<1, 0>(t137);
        const P t140 = P(-c[23], c[23]) * t139;
        const P t141 = t138 + t140;
        const P t142 = shuffled<0, 2>(t47, t56);
        const P t143 = c[24] * t142;
        const P t144 = shuffled<1, 0>(t142);
        const P t145 = P(-c[25], c[25]) * t144;
        const P t146 = t143 + t145;
        const P t147 = shuffled<1, 3>(t113, t104);
        const P t148 = c[26] * t147;
        const P t149 = shuffled<1, 0>(t147);
        const P t150 = P(c[27], -c[27]) * t149;
        const P t151 = t148 + t150;
        const P t152 = shuffled<0, 2>(t75, t66);
        const P t153 = c[28] * t152;
        const P t154 = shuffled<1, 0>(t152);
        const P t155 = P(c[29], -c[29]) * t154;
        const P t156 = t153 + t155;
        const P t157 = shuffled<1, 3>(t94, t85);
        const P t158 = c[30] * t157;
        const P t159 = shuffled<1, 0>(t157);
        const P t160 = P(c[31], -c[31]) * t159;
        const P t161 = t158 + t160;
        const P t162 = shuffled<0, 2>(t85, t94);
        const P t163 = c[32] * t162;
        const P t164 = shuffled<1, 0>(t162);
        const P t165 = P(-c[33], c[33]) * t164;
        const P t166 = t163 + t165;
        const P t167 = shuffled<1, 3>(t66, t75);
        const P t168 = c[34] * t167;
        const P t169 = shuffled<1, 0>(t167);
        const P t170 = P(c[35], -c[35]) * t169;
        const P t171 = t168 + t170;
        const P t172 = shuffled<0, 2>(t104, t113);
        const P t173 = P(-c[36], c[36]) * t172;
        const P t174 = shuffled<1, 0>(t172);
        const P t175 = c[37] * t174;
        const P t176 = t173 + t175;
        const P t177 = shuffled<1, 3>(t47, t56);
        const P t178 = P(-c[38], c[38]) * t177;
        const P t179 = shuffled<1, 0>(t177);
        const P t180 = c[39] * t179;
        const P t181 = t178 + t180;
        const P t182 = shuffled<0, 2>(t123, t132);
        const P t183 = c[40] * t182;
        const P t184 = shuffled<1, 0>(t182);
        const P t185 = P(c[41], -c[41]) * t184;
        const P t186 = t183 + t185;
        const P t187 = shuffled<0, 3>(t156, t171);
        const P t188 = shuffled<0, 3>(t186, t141);
        const P t189 = flipped<0, 1>(t188);
        // real block of 5
        const P t190 = t187 + t189;
        const P t191 = t187 - t189;
        const P t192 = shuffled<0, 3>(t166, t161);
        const P t193 = shuffled<0, 3>(t176, t151);
        const P t194 = t192 + t193;
        const P t195 = t192 - t193;
        const P t196 = t190 + t194;
        const P t197 = shuffled<0, 3>(t146, t181);
        const P t198 = t196 + t197;
        const P t199 = c[0] * t190;
        const P t200 = c[1] * t194;
        const P t201 = t199 - t200;
        const P t202 = t201 + t197;
        const P t203 = c[2] * t195;
        const P t204 = c[3] * t191;
        const P t205 = t203 - t204;
        const P t206 = c[1] * t190;
        const P t207 = t197 - t206;
        const P t208 = c[0] * t194;
        const P t209 = t207 + t208;
        const P t210 = c[2] * t191;
        const P t211 = c[3] * t195;
        const P t212 = t210 + t211;
        const P t213 = shuffled<1, 2>(t186, t141);
        const P t214 = shuffled<1, 2>(t156, t171);
        // real block of 5
        const P t215 = t213 - t214;
        const P t216 = t214 + t213;
        const P t217 = shuffled<1, 2>(t166, t161);
        const P t218 = shuffled<1, 2>(t176, t151);
        const P t219 = flipped<1, 0>(t218);
        const P t220 = t217 + t219;
        const P t221 = t217 - t219;
        const P t222 = t215 + t220;
        const P t223 = shuffled<1, 2>(t146, t181);
        const P t224 = t222 + t223;
        const P t225 = c[0] * t215;
        const P t226 = c[1] * t220;
        const P t227 = t225 - t226;
        const P t228 = t227 + t223;
        const P t229 = c[3] * t216;
        const P t230 = c[2] * t221;
        const P t231 = t229 + t230;
        const P t232 = c[1] * t215;
        const P t233 = t223 - t232;
        const P t234 = c[0] * t220;
        const P t235 = t233 + t234;
        const P t236 = c[2] * t216;
        const P t237 = c[3] * t221;
        const P t238 = t236 - t237;
        const V t239 = part<1>(t37);
        // real block of 23
        const V t240 = c[45] * t239;
        const P t241 = joined(t136, t240);
        // spectrum block of 11
        const P t242 = P(-c[42], c[42]) * t198;
        const P t243 = t241 + t242;
        const P t244 = c[14] * t235;
        const P t245 = c[15] * t238;
        const P t246 = t244 + t245;
        const P t247 = c[14] * t238;
        const P t248 = c[15] * t235;
        const P t249 = t247 - t248;
        const P t250 = c[16] * t202;
        const P t251 = c[17] * t205;
        const P t252 = t250 - t251;
        const P t253 = c[16] * t205;
        const P t254 = c[17] * t202;
        const P t255 = t253 + t254;
        const P t256 = c[18] * t228;
        const P t257 = c[19] * t231;
        const P t258 = t256 - t257;
        const P t259 = c[18] * t231;
        const P t260 = c[19] * t228;
        const P t261 = t259 + t260;
        const P t262 = c[20] * t209;
        const P t263 = c[21] * t212;
        const P t264 = t262 + t263;
        const P t265 = c[21] * t209;
        const P t266 = c[20] * t212;
        const P t267 = t265 - t266;
        const P t268 = P(-c[43], c[43]) * t224;
        // spectrum block of 2
        const P t269 = t243 + t268;
        const P t270 = shuffled<0, 3>(t243, t268);
        const P t271 = shuffled<0, 3>(t268, t243);
        const P t272 = t270 - t271;
        // complex block of 2
        const P t273 = t255 + t261;
        const P t274 = t252 + t258;
        const P t275 = t255 - t261;
        const P t276 = t252 - t258;
        // complex block of 2
        const P t277 = t267 - t249;
        const P t278 = t264 - t246;
        const P t279 = t267 + t249;
        const P t280 = t264 + t246;
        // spectrum block of 5, multiplier 2
        const P t281 = t274 + t278;
        const P t282 = flipped<0, 1>(t269);
        const P t283 = t281 + t282;
        io.pair(9, t283);
        const P t284 = c[0] * t274;
        const P t285 = c[1] * t278;
        const P t286 = t284 - t285;
        const P t287 = t286 + t282;
        const P t288 = c[3] * t273;
        const P t289 = c[2] * t277;
        const P t290 = t288 + t289;
        const P t291 = t287 - t290;
        io.pair(8, t291);
        const P t292 = t287 + t290;
        io.pair(2, t292);
        const P t293 = P(-c[1], c[1]) * t274;
        const P t294 = t269 + t293;
        const P t295 = c[0] * t278;
        const P t296 = flipped<0, 1>(t294);
        const P t297 = t295 + t296;
        const P t298 = c[2] * t273;
        const P t299 = c[3] * t277;
        const P t300 = t298 - t299;
        const P t301 = t297 - t300;
        io.pair(7, negated<0, 1>(t301));
        const P t302 = t297 + t300;
        io.pair(6, t302);
        // spectrum block of 5, multiplier 2
        const P t303 = t276 + t280;
        const P t304 = t303 + t272;
        io.pair(5, negated<0, 1>(t304));
        const P t305 = c[0] * t276;
        const P t306 = c[1] * t280;
        const P t307 = t305 - t306;
        const P t308 = t307 + t272;
        const P t309 = c[3] * t275;
        const P t310 = c[2] * t279;
        const P t311 = t309 + t310;
        const P t312 = t308 - t311;
        io.pair(3, t312);
        const P t313 = t308 + t311;
        io.pair(11, negated<0, 1>(t313));
        const P t314 = c[1] * t276;
        const P t315 = t272 - t314;
        const P t316 = c[0] * t280;
        const P t317 = t315 + t316;
        const P t318 = c[2] * t275;
        const P t319 = c[3] * t279;
        const P t320 = t318 - t319;
        const P t321 = t317 - t320;
        io.pair(10, negated<0, 1>(t321));
        const P t322 = t317 + t320;
        io.pair(4, t322);
        const P t323 = flipped<0, 1>(t241);
        // spectrum block of 11
        const P t324 = t198 + t323;
        io.pair(1, t324);
    }
};

}  // namespace zulg
