// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 46.
// Inverse DFT to 46 real points, prime-factor 23, 2; up to four lanes to a register.
// 96 sums, 62 differences, 133 products of registers, which do the 1188 steps of the graph, those with
// `scale` included; 204 shuffles, 25 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<46> {
    static constexpr int steps = 1188;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.8412535328311812,  // c[1]: cos 2 pi 1/11
        0.41541501300188644,  // c[2]: cos 2 pi 9/11
        0.9096319953545183,  // c[3]: -sin 2 pi 9/11
        0.5406408174555976,  // c[4]: sin 2 pi 1/11
        0.28173255684142967,  // c[5]: -sin 2 pi 6/11
        0.6548607339452851,  // c[6]: -cos 2 pi 4/11
        0.7557495743542583,  // c[7]: sin 2 pi 4/11
        0.14231483827328514,  // c[8]: -cos 2 pi 3/11
        0.9898214418809327,  // c[9]: sin 2 pi 3/11
        0.9594929736144974,  // c[10]: -cos 2 pi 6/11
        0.4130101145562366,  // c[11]: P[2] of 23
        0.1396613400420585,  // c[12]: Q[2] of 23
        0.4075964682115579,  // c[13]: P[9] of 23
        0.15475065017493012,  // c[14]: Q[9] of 23
        0.07284077652875139,  // c[15]: -P[4] of 23
        0.42985679697172136,  // c[16]: -Q[4] of 23
        0.3941449686576057,  // c[17]: Q[7] of 23
        0.1863662746045921,  // c[18]: -P[7] of 23
        0.3222553093449257,  // c[19]: -Q[3] of 23
        0.2936565344532715,  // c[20]: -P[3] of 23
        0.12855275355334153,  // c[21]: -Q[5] of 23
        0.4166015292602189,  // c[22]: P[5] of 23
        0.2732012886111602,  // c[23]: -P[6] of 23
        0.3397700700904962,  // c[24]: -Q[6] of 23
        0.05696081894716527,  // c[25]: Q[8] of 23
        0.4322477411542684,  // c[26]: P[8] of 23
        0.39967916400094217,  // c[27]: -Q[1] of 23
        0.17418154463549565,  // c[28]: P[1] of 23
        0.4006581594304406,  // c[29]: P[10] of 23
        0.1719176660785936,  // c[30]: Q[10] of 23
        0.045454545454545456,  // c[31]: 1/22
        0.21799234196875997,  // c[32]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const Q x22_1 = io.pairs(22, 1);
        // doubled bins
        const Q t0 = c[0] * x22_1;
        const P t1 = part<0>(t0);
        const P t2 = part<1>(t0);
        const P t3 = shuffled<0, 2>(t1, t2);
        const Q x4_19 = io.pairs(4, 19);
        const Q t4 = c[0] * x4_19;
        const P t5 = part<0>(t4);
        const P t6 = part<1>(t0);
        const P t7 = shuffled<1, 3>(t5, t6);
        const Q t8 = joined(t3, t7);
        const P t9 = part<1>(t4);
        const P t10 = shuffled<0, 2>(t5, t9);
        const P t11 = part<1>(t4);
        const P t12 = shuffled<1, 3>(t1, t11);
        const P t13 = flipped<1, 1>(t12);
        const Q t14 = joined(t10, t13);
        // real block of 11
        const Q t15 = t8 + t14;
        const Q t16 = t8 - t14;
        const Q x20_3 = io.pairs(20, 3);
        // doubled bins
        const Q t17 = c[0] * x20_3;
        const P t18 = part<0>(t17);
        const P t19 = part<1>(t17);
        const P t20 = shuffled<0, 2>(t18, t19);
        const Q x14_9 = io.pairs(14, 9);
        const Q t21 = c[0] * x14_9;
        const P t22 = part<0>(t21);
        const P t23 = part<1>(t17);
        const P t24 = shuffled<1, 3>(t22, t23);
        const Q t25 = joined(t20, t24);
        const P t26 = part<1>(t21);
        const P t27 = shuffled<0, 2>(t22, t26);
        const P t28 = part<1>(t21);
        const P t29 = shuffled<1, 3>(t18, t28);
        const Q t30 = joined(t27, t29);
        // real block of 11
        const Q t31 = t25 - t30;
        const Q x10_13 = io.pairs(10, 13);
        // doubled bins
        const Q t32 = c[0] * x10_13;
        const P t33 = part<0>(t32);
        const P t34 = part<1>(t32);
        const P t35 = shuffled<0, 2>(t33, t34);
        const Q x18_5 = io.pairs(18, 5);
        const Q t36 = c[0] * x18_5;
        const P t37 = part<0>(t36);
        const P t38 = part<1>(t32);
        const P t39 = shuffled<1, 3>(t37, t38);
        const Q t40 = joined(t35, t39);
        const P t41 = part<1>(t36);
        const P t42 = shuffled<0, 2>(t37, t41);
        const P t43 = part<1>(t36);
        const P t44 = shuffled<1, 3>(t33, t43);
        const P t45 = flipped<1, 1>(t44);
        const Q t46 = joined(t42, t45);
        // real block of 11
        const Q t47 = t40 + t46;
        const Q t48 = t40 - t46;
        const Q x16_7 = io.pairs(16, 7);
        // doubled bins
        const Q t49 = c[0] * x16_7;
        const P t50 = part<0>(t49);
        const P t51 = part<1>(t49);
        const P t52 = shuffled<0, 2>(t50, t51);
        const P t53 = part<0>(t49);
        const Q x6_17 = io.pairs(6, 17);
        const Q t54 = c[0] * x6_17;
        const P t55 = part<1>(t54);
        const P t56 = shuffled<1, 3>(t53, t55);
        const Q t57 = joined(t52, t56);
        const P t58 = part<0>(t54);
        const P t59 = shuffled<0, 2>(t58, t55);
        const P t60 = part<0>(t54);
        const P t61 = shuffled<1, 3>(t60, t51);
        const Q t62 = joined(t59, t61);
        // real block of 11
        const Q t63 = t57 - t62;
        const Q t64 = t25 + t30;
        const Q t65 = t47 + t15;
        const Q t66 = flipped<0, 0, 1, 0>(t64);
        const Q t67 = t65 + t66;
        const Q t68 = t62 + t57;
        const Q t69 = c[1] * t47;
        const Q t70 = c[2] * t15;
        const Q t71 = t69 + t70;
        const Q t72 = c[3] * t16;
        const Q t73 = c[4] * t48;
        const Q t74 = shuffled<0, 5, 2, 7>(t73, t72);
        const Q t75 = shuffled<0, 1, 6, 7>(t72, t74);
        const Q t76 = c[5] * t63;
        const Q t77 = t75 + t76;
        const Q t78 = c[2] * t47;
        const Q t79 = c[6] * t15;
        const Q t80 = t78 - t79;
        const Q t81 = c[7] * t16;
        const Q t82 = c[3] * t48;
        const Q t83 = shuffled<0, 5, 2, 7>(t82, t81);
        const Q t84 = shuffled<0, 1, 6, 7>(t81, t83);
        const Q t85 = c[5] * t31;
        const Q t86 = t84 + t85;
        const Q x2_21 = io.pairs(2, 21);
        // doubled bins
        const Q t87 = c[0] * x2_21;
        const P t88 = part<0>(t87);
        const P t89 = part<1>(t87);
        const P t90 = shuffled<0, 2>(t88, t89);
        const P t91 = part<0>(t87);
        const P t92 = part<1>(t87);
        const P t93 = shuffled<1, 3>(t91, t92);
        const Q t94 = joined(t90, t93);
        // real block of 11
        const Q t95 = Q(c[8], c[8], c[8], -c[8]) * t47;
        const Q t96 = t94 - t95;
        const Q t97 = c[3] * t31;
        const Q t98 = c[9] * t48;
        const Q t99 = shuffled<0, 5, 2, 7>(t98, t97);
        const Q t100 = shuffled<0, 1, 6, 7>(t97, t99);
        const Q t101 = c[7] * t63;
        const Q t102 = c[5] * t16;
        const Q t103 = shuffled<0, 5, 2, 7>(t102, t101);
        const Q t104 = shuffled<0, 1, 6, 7>(t101, t103);
        const Q t105 = t100 + t104;
        const Q t106 = Q(c[6], c[6], c[6], -c[6]) * t47;
        const Q t107 = t94 - t106;
        const Q t108 = Q(c[10], c[10], c[10], -c[10]) * t47;
        const Q t109 = t94 - t108;
        const Q x8_15 = io.pairs(8, 15);
        // doubled bins
        const Q t110 = c[0] * x8_15;
        const P t111 = part<0>(t110);
        const P t112 = part<1>(t110);
        const P t113 = shuffled<0, 2>(t111, t112);
        const P t114 = part<0>(t110);
        const P t115 = part<1>(t110);
        const P t116 = shuffled<1, 3>(t114, t115);
        const Q t117 = joined(t113, t116);
        const Q x12_11 = io.pairs(12, 11);
        const Q t118 = c[0] * x12_11;
        const P t119 = part<0>(t118);
        const P t120 = part<1>(t118);
        const P t121 = shuffled<0, 2>(t119, t120);
        const P t122 = part<0>(t118);
        const P t123 = part<1>(t118);
        const P t124 = shuffled<1, 3>(t122, t123);
        const Q t125 = joined(t121, t124);
        // real block of 11
        const Q t126 = t117 + t125;
        const Q t127 = flipped<0, 0, 0, 1>(t117);
        const Q t128 = flipped<0, 0, 0, 1>(t125);
        const Q t129 = t127 - t128;
        const Q t130 = flipped<0, 0, 0, 1>(t126);
        const Q t131 = t67 + t130;
        const Q t132 = flipped<0, 0, 0, 1>(t68);
        const Q t133 = t131 + t132;
        const Q t134 = flipped<0, 0, 0, 1>(t94);
        const Q t135 = t133 + t134;
        const Q t136 = Q(c[8], c[8], -c[8], c[8]) * t64;
        const Q t137 = t71 - t136;
        const Q t138 = Q(c[6], c[6], c[6], -c[6]) * t126;
        const Q t139 = t137 - t138;
        const Q t140 = Q(c[10], c[10], c[10], -c[10]) * t68;
        const Q t141 = t139 - t140;
        const Q t142 = shuffled<0, 5, 2, 7>(t72, t73);
        const Q t143 = shuffled<0, 1, 6, 7>(t73, t142);
        const Q t144 = t77 - t143;
        const Q t145 = c[9] * t31;
        const Q t146 = t144 - t145;
        const Q t147 = t141 + t134;
        const Q t148 = c[7] * t129;
        const Q t149 = t146 - t148;
        const Q t150 = Q(c[10], c[10], -c[10], c[10]) * t64;
        const Q t151 = t80 - t150;
        const Q t152 = Q(c[8], c[8], c[8], -c[8]) * t126;
        const Q t153 = t151 - t152;
        const Q t154 = Q(c[1], c[1], c[1], -c[1]) * t68;
        const Q t155 = t153 + t154;
        const Q t156 = c[9] * t129;
        const Q t157 = t86 + t156;
        const Q t158 = shuffled<0, 5, 2, 7>(t81, t82);
        const Q t159 = shuffled<0, 1, 6, 7>(t82, t158);
        const Q t160 = t157 - t159;
        const Q t161 = t155 + t134;
        const Q t162 = c[4] * t63;
        const Q t163 = t160 - t162;
        const Q t164 = Q(c[10], c[10], c[10], -c[10]) * t15;
        const Q t165 = t96 - t164;
        const Q t166 = Q(c[2], c[2], -c[2], c[2]) * t64;
        const Q t167 = flipped<0, 0, 0, 1>(t165);
        const Q t168 = t166 + t167;
        const Q t169 = Q(c[1], c[1], c[1], -c[1]) * t126;
        const Q t170 = t168 + t169;
        const Q t171 = shuffled<0, 5, 2, 7>(t97, t98);
        const Q t172 = shuffled<0, 1, 6, 7>(t98, t171);
        const Q t173 = flipped<0, 0, 1, 0>(t172);
        const Q t174 = t105 - t173;
        const Q t175 = shuffled<0, 5, 2, 7>(t101, t102);
        const Q t176 = shuffled<0, 1, 6, 7>(t102, t175);
        const Q t177 = flipped<0, 0, 1, 0>(t176);
        const Q t178 = t174 - t177;
        const Q t179 = Q(c[6], c[6], c[6], -c[6]) * t68;
        const Q t180 = t170 - t179;
        const Q t181 = c[4] * t129;
        const Q t182 = t178 - t181;
        const Q t183 = Q(c[8], c[8], c[8], -c[8]) * t15;
        const Q t184 = t107 - t183;
        const Q t185 = Q(c[1], c[1], -c[1], c[1]) * t64;
        const Q t186 = flipped<0, 0, 0, 1>(t184);
        const Q t187 = t185 + t186;
        const Q t188 = Q(c[10], c[10], c[10], -c[10]) * t126;
        const Q t189 = t187 - t188;
        const Q t190 = Q(c[2], c[2], c[2], -c[2]) * t68;
        const Q t191 = t189 + t190;
        const Q t192 = c[7] * t48;
        const Q t193 = c[9] * t16;
        const Q t194 = t192 + t193;
        const Q t195 = Q(c[4], c[4], -c[4], c[4]) * t31;
        const Q t196 = t194 + t195;
        const Q t197 = Q(c[5], c[5], -c[5], c[5]) * t129;
        const Q t198 = t196 + t197;
        const Q t199 = Q(c[3], c[3], -c[3], c[3]) * t63;
        const Q t200 = t198 + t199;
        const Q t201 = c[1] * t15;
        const Q t202 = flipped<0, 0, 0, 1>(t109);
        const Q t203 = t201 + t202;
        const Q t204 = Q(c[6], c[6], -c[6], c[6]) * t64;
        const Q t205 = t203 - t204;
        const Q t206 = Q(c[2], c[2], c[2], -c[2]) * t126;
        const Q t207 = t205 + t206;
        const Q t208 = Q(c[8], c[8], c[8], -c[8]) * t68;
        const Q t209 = t207 - t208;
        const Q t210 = c[3] * t129;
        const Q t211 = c[5] * t48;
        const Q t212 = shuffled<0, 5, 2, 7>(t211, t210);
        const Q t213 = shuffled<0, 1, 6, 7>(t210, t212);
        const Q t214 = c[9] * t63;
        const Q t215 = c[4] * t16;
        const Q t216 = shuffled<0, 5, 2, 7>(t215, t214);
        const Q t217 = shuffled<0, 1, 6, 7>(t214, t216);
        const Q t218 = t213 + t217;
        const Q t219 = shuffled<0, 5, 2, 7>(t210, t211);
        const Q t220 = shuffled<0, 1, 6, 7>(t211, t219);
        const Q t221 = flipped<0, 0, 1, 0>(t220);
        const Q t222 = t218 - t221;
        const Q t223 = shuffled<0, 5, 2, 7>(t214, t215);
        const Q t224 = shuffled<0, 1, 6, 7>(t215, t223);
        const Q t225 = flipped<0, 0, 1, 0>(t224);
        const Q t226 = t222 - t225;
        const Q t227 = c[7] * t31;
        const Q t228 = t226 - t227;
        const V x0r = io.re(0);
        const V x23r = io.re(23);
        const P t229 = joined(x0r, x23r);
        const P t230 = part<0>(t135);
        // spectrum block of 23, multiplier 2
        const P t231 = c[31] * t230;
        const P t232 = t229 - t231;
        const Q t233 = shuffled<0, 4, 2, 6>(t147, t149);
        const Q t234 = shuffled<1, 5, 3, 7>(t147, t149);
        const Q t235 = shuffled<0, 1, 4, 5>(t233, t234);
        const Q t236 = c[11] * t235;
        const Q t237 = shuffled<1, 0, 3, 2>(t235);
        const Q t238 = Q(-c[12], c[12], -c[12], c[12]) * t237;
        const Q t239 = t236 + t238;
        const Q t240 = shuffled<2, 3, 6, 7>(t233, t234);
        const Q t241 = shuffled<1, 0, 3, 2>(t240);
        const Q t242 = c[13] * t241;
        const Q t243 = Q(c[14], -c[14], c[14], -c[14]) * t240;
        const Q t244 = t242 + t243;
        const Q t245 = shuffled<0, 4, 2, 6>(t161, t163);
        const Q t246 = shuffled<1, 5, 3, 7>(t161, t163);
        const Q t247 = shuffled<0, 1, 4, 5>(t245, t246);
        const Q t248 = Q(-c[15], c[15], -c[15], c[15]) * t247;
        const Q t249 = shuffled<1, 0, 3, 2>(t247);
        const Q t250 = c[16] * t249;
        const Q t251 = t248 + t250;
        const Q t252 = shuffled<2, 3, 6, 7>(t245, t246);
        const Q t253 = c[17] * t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t252);
        const Q t255 = Q(-c[18], c[18], -c[18], c[18]) * t254;
        const Q t256 = t253 + t255;
        const P t257 = part<0>(t239);
        const P t258 = part<1>(t239);
        const P t259 = shuffled<0, 2>(t257, t258);
        const P t260 = part<0>(t244);
        const P t261 = part<1>(t244);
        const P t262 = shuffled<0, 2>(t260, t261);
        const Q t263 = joined(t259, t262);
        const P t264 = part<0>(t251);
        const P t265 = part<1>(t251);
        const P t266 = shuffled<0, 2>(t264, t265);
        const P t267 = part<0>(t256);
        const P t268 = part<1>(t256);
        const P t269 = shuffled<0, 2>(t267, t268);
        const Q t270 = joined(t266, t269);
        // spectrum block of 11, multiplier 2
        const Q t271 = t263 + t270;
        const Q t272 = c[1] * t263;
        const Q t273 = c[2] * t270;
        const Q t274 = t272 + t273;
        const P t275 = shuffled<1, 3>(t264, t265);
        const P t276 = shuffled<1, 3>(t267, t268);
        const Q t277 = joined(t275, t276);
        const Q t278 = Q(-c[3], -c[3], c[3], c[3]) * t277;
        const P t279 = shuffled<1, 3>(t257, t258);
        const P t280 = shuffled<1, 3>(t260, t261);
        const Q t281 = joined(t279, t280);
        const Q t282 = Q(c[4], c[4], -c[4], -c[4]) * t281;
        const Q t283 = t278 + t282;
        const Q t284 = c[2] * t263;
        const Q t285 = c[6] * t270;
        const Q t286 = t284 - t285;
        const Q t287 = Q(-c[7], -c[7], c[7], c[7]) * t277;
        const Q t288 = Q(c[3], c[3], -c[3], -c[3]) * t281;
        const Q t289 = t287 + t288;
        const P t290 = part<1>(t135);
        // spectrum block of 23, multiplier 2
        const P t291 = c[32] * t290;
        const Q t292 = joined(t232, t291);
        // spectrum block of 11, multiplier 2
        const Q t293 = Q(-c[8], -c[8], c[8], c[8]) * t263;
        const Q t294 = t292 + t293;
        const Q t295 = c[9] * t281;
        const Q t296 = c[5] * t277;
        const Q t297 = t295 + t296;
        const Q t298 = Q(-c[6], -c[6], c[6], c[6]) * t263;
        const Q t299 = t292 + t298;
        const Q t300 = c[7] * t281;
        const Q t301 = c[9] * t277;
        const Q t302 = t300 + t301;
        const Q t303 = Q(-c[10], -c[10], c[10], c[10]) * t263;
        const Q t304 = t292 + t303;
        const Q t305 = c[5] * t281;
        const Q t306 = c[4] * t277;
        const Q t307 = t305 + t306;
        const Q t308 = shuffled<0, 4, 2, 6>(t191, t200);
        const Q t309 = shuffled<1, 5, 3, 7>(t191, t200);
        const Q t310 = shuffled<2, 3, 6, 7>(t308, t309);
        // spectrum block of 23, multiplier 2
        const Q t311 = Q(c[19], c[19], -c[19], c[19]) * t310;
        const Q t312 = shuffled<1, 0, 3, 2>(t310);
        const Q t313 = Q(c[20], -c[20], c[20], c[20]) * t312;
        const Q t314 = t311 + t313;
        const Q t315 = shuffled<0, 4, 2, 6>(t180, t182);
        const Q t316 = shuffled<1, 5, 3, 7>(t180, t182);
        const Q t317 = shuffled<2, 3, 6, 7>(t315, t316);
        const Q t318 = Q(-c[21], c[21], -c[21], c[21]) * t317;
        const Q t319 = shuffled<1, 0, 3, 2>(t317);
        const Q t320 = c[22] * t319;
        const Q t321 = t318 + t320;
        const Q t322 = shuffled<0, 1, 4, 5>(t315, t316);
        const Q t323 = Q(-c[23], c[23], -c[23], c[23]) * t322;
        const Q t324 = shuffled<1, 0, 3, 2>(t322);
        const Q t325 = c[24] * t324;
        const Q t326 = t323 + t325;
        const Q t327 = shuffled<0, 1, 4, 5>(t308, t309);
        const Q t328 = shuffled<1, 0, 3, 2>(t327);
        const Q t329 = c[25] * t328;
        const Q t330 = Q(c[26], -c[26], c[26], -c[26]) * t327;
        const Q t331 = t329 + t330;
        const P t332 = part<0>(t326);
        const P t333 = part<1>(t326);
        const P t334 = shuffled<0, 2>(t332, t333);
        const P t335 = part<0>(t321);
        const P t336 = part<1>(t321);
        const P t337 = shuffled<0, 2>(t335, t336);
        const Q t338 = joined(t334, t337);
        // spectrum block of 11, multiplier 2
        const Q t339 = t271 + t338;
        const P t340 = part<0>(t331);
        const P t341 = part<1>(t331);
        const P t342 = shuffled<0, 2>(t340, t341);
        const P t343 = part<0>(t314);
        const P t344 = part<1>(t314);
        const P t345 = shuffled<0, 2>(t343, t344);
        const P t346 = flipped<1, 0>(t345);
        const Q t347 = joined(t342, t346);
        const Q t348 = t339 + t347;
        const Q t349 = c[8] * t338;
        const Q t350 = t274 - t349;
        const Q t351 = c[6] * t347;
        const Q t352 = t350 - t351;
        const P t353 = shuffled<1, 3>(t332, t333);
        const P t354 = shuffled<1, 3>(t335, t336);
        const Q t355 = joined(t353, t354);
        const Q t356 = c[9] * t355;
        const Q t357 = t283 - t356;
        const P t358 = shuffled<1, 3>(t340, t341);
        const P t359 = shuffled<1, 3>(t343, t344);
        const Q t360 = joined(t358, t359);
        const Q t361 = Q(c[7], c[7], -c[7], c[7]) * t360;
        const Q t362 = t357 + t361;
        const Q t363 = c[10] * t338;
        const Q t364 = t286 - t363;
        const Q t365 = c[8] * t347;
        const Q t366 = t364 - t365;
        const Q t367 = c[5] * t355;
        const Q t368 = t289 + t367;
        const Q t369 = Q(c[9], c[9], -c[9], c[9]) * t360;
        const Q t370 = t368 - t369;
        const Q t371 = Q(-c[10], -c[10], c[10], c[10]) * t270;
        const Q t372 = t294 + t371;
        const Q t373 = c[2] * t338;
        const Q t374 = flipped<0, 0, 1, 1>(t372);
        const Q t375 = t373 + t374;
        const Q t376 = c[3] * t355;
        const Q t377 = flipped<0, 0, 1, 1>(t297);
        const Q t378 = t376 + t377;
        const Q t379 = Q(c[4], c[4], -c[4], c[4]) * t360;
        const Q t380 = t378 + t379;
        const Q t381 = Q(-c[8], -c[8], c[8], c[8]) * t270;
        const Q t382 = t299 + t381;
        const Q t383 = c[1] * t338;
        const Q t384 = flipped<0, 0, 1, 1>(t382);
        const Q t385 = t383 + t384;
        const Q t386 = Q(-c[4], -c[4], c[4], c[4]) * t355;
        const Q t387 = t302 + t386;
        const Q t388 = c[5] * t360;
        const Q t389 = flipped<0, 0, 0, 1>(t387);
        const Q t390 = t388 + t389;
        const Q t391 = c[1] * t270;
        const Q t392 = flipped<0, 0, 1, 1>(t304);
        const Q t393 = t391 + t392;
        const Q t394 = c[6] * t338;
        const Q t395 = t393 - t394;
        const Q t396 = Q(-c[7], -c[7], c[7], c[7]) * t355;
        const Q t397 = t307 + t396;
        const Q t398 = flipped<0, 0, 1, 0>(t397);
        const Q t399 = Q(-c[3], -c[3], c[3], c[3]) * t360;
        const Q t400 = t398 + t399;
        const Q t401 = shuffled<0, 4, 2, 6>(t209, t228);
        const Q t402 = shuffled<1, 5, 3, 7>(t209, t228);
        const Q t403 = shuffled<2, 3, 6, 7>(t401, t402);
        // spectrum block of 23, multiplier 2
        const Q t404 = Q(-c[27], c[27], -c[27], c[27]) * t403;
        const Q t405 = shuffled<1, 0, 3, 2>(t403);
        const Q t406 = c[28] * t405;
        const Q t407 = t404 + t406;
        const Q t408 = shuffled<0, 1, 4, 5>(t401, t402);
        const Q t409 = c[29] * t408;
        const Q t410 = shuffled<1, 0, 3, 2>(t408);
        const Q t411 = Q(-c[30], c[30], -c[30], c[30]) * t410;
        const Q t412 = t409 + t411;
        const P t413 = t229 + t230;
        const P t414 = part<0>(t412);
        const P t415 = part<1>(t412);
        const P t416 = shuffled<0, 2>(t414, t415);
        const P t417 = part<0>(t407);
        const P t418 = part<1>(t407);
        const P t419 = shuffled<0, 2>(t417, t418);
        const Q t420 = joined(t416, t419);
        // spectrum block of 11, multiplier 2
        const Q t421 = t348 + t420;
        const Q t422 = flipped<0, 0, 1, 1>(t292);
        const Q t423 = t421 + t422;
        const Q t424 = c[10] * t420;
        const Q t425 = t352 - t424;
        const Q t426 = t425 + t422;
        const P t427 = shuffled<1, 3>(t414, t415);
        const P t428 = shuffled<1, 3>(t417, t418);
        const Q t429 = joined(t427, t428);
        const Q t430 = Q(c[5], c[5], -c[5], -c[5]) * t429;
        const Q t431 = t362 + t430;
        const Q t432 = t426 - t431;
        const Q t433 = t426 + t431;
        const Q t434 = c[1] * t420;
        const Q t435 = t366 + t434;
        const Q t436 = t435 + t422;
        const Q t437 = Q(-c[4], -c[4], c[4], c[4]) * t429;
        const Q t438 = t370 + t437;
        const Q t439 = t436 - t438;
        const Q t440 = t436 + t438;
        const Q t441 = c[1] * t347;
        const Q t442 = t375 + t441;
        const Q t443 = c[6] * t420;
        const Q t444 = t442 - t443;
        const Q t445 = Q(c[7], c[7], -c[7], -c[7]) * t429;
        const Q t446 = t380 + t445;
        const Q t447 = t444 - t446;
        const Q t448 = t444 + t446;
        const Q t449 = c[10] * t347;
        const Q t450 = t385 - t449;
        const Q t451 = c[2] * t420;
        const Q t452 = t450 + t451;
        const Q t453 = flipped<0, 0, 1, 0>(t390);
        const Q t454 = Q(-c[3], -c[3], c[3], c[3]) * t429;
        const Q t455 = t453 + t454;
        const Q t456 = t452 - t455;
        const Q t457 = t452 + t455;
        const Q t458 = c[2] * t347;
        const Q t459 = t395 + t458;
        const Q t460 = c[8] * t420;
        const Q t461 = t459 - t460;
        const Q t462 = Q(c[9], c[9], -c[9], c[9]) * t429;
        const Q t463 = t400 + t462;
        const Q t464 = flipped<0, 0, 0, 1>(t463);
        const Q t465 = t461 - t464;
        const Q t466 = t461 + t464;
        const Q t467 = shuffled<0, 1, 4, 5>(t423, t439);
        const Q t468 = shuffled<2, 3, 6, 7>(t423, t439);
        // spectrum block of 2
        const Q t469 = t467 + t468;
        const Q t470 = t467 - t468;
        const Q t471 = shuffled<0, 1, 4, 5>(t456, t466);
        const Q t472 = shuffled<2, 3, 6, 7>(t456, t466);
        // spectrum block of 2
        const Q t473 = t471 + t472;
        const Q t474 = t471 - t472;
        const Q t475 = shuffled<0, 1, 4, 5>(t448, t433);
        const Q t476 = shuffled<2, 3, 6, 7>(t448, t433);
        // spectrum block of 2
        const Q t477 = t475 + t476;
        const Q t478 = t475 - t476;
        const Q t479 = shuffled<0, 1, 4, 5>(t432, t447);
        const Q t480 = shuffled<2, 3, 6, 7>(t432, t447);
        // spectrum block of 2
        const Q t481 = t479 + t480;
        const Q t482 = t479 - t480;
        const Q t483 = shuffled<0, 1, 4, 5>(t465, t457);
        const Q t484 = shuffled<2, 3, 6, 7>(t465, t457);
        // spectrum block of 2
        const Q t485 = t483 + t484;
        const Q t486 = t483 - t484;
        const P t487 = part<0>(t440);
        const P t488 = part<1>(t440);
        // spectrum block of 2
        const P t489 = t487 + t488;
        const P t490 = t487 - t488;
        const P t491 = part<0>(t469);
        const P t492 = shuffled<0, 2>(t413, t491);
        const P t493 = part<1>(t473);
        const P t494 = shuffled<0, 2>(t489, t493);
        const Q t495 = joined(t492, t494);
        const P t496 = shuffled<1, 3>(t413, t491);
        const P t497 = shuffled<1, 3>(t489, t493);
        const Q t498 = joined(t496, t497);
        // spectrum block of 2
        const Q t499 = t495 + t498;
        io.out(0, 2, 4, 6, t499);
        const Q t500 = t495 - t498;
        io.out(23, 25, 27, 29, t500);
        const P t501 = part<1>(t485);
        const P t502 = part<1>(t478);
        const P t503 = shuffled<0, 2>(t501, t502);
        const P t504 = part<0>(t473);
        const P t505 = part<1>(t482);
        const P t506 = shuffled<0, 2>(t504, t505);
        const Q t507 = joined(t503, t506);
        const P t508 = shuffled<1, 3>(t501, t502);
        const P t509 = shuffled<1, 3>(t504, t505);
        const Q t510 = joined(t508, t509);
        // spectrum block of 2
        const Q t511 = t507 + t510;
        io.out(8, 10, 12, 14, t511);
        const Q t512 = t507 - t510;
        io.out(31, 33, 35, 37, t512);
        const P t513 = part<0>(t485);
        const P t514 = part<0>(t481);
        const P t515 = shuffled<0, 2>(t513, t514);
        const P t516 = part<0>(t478);
        const P t517 = part<1>(t470);
        const P t518 = shuffled<0, 2>(t516, t517);
        const Q t519 = joined(t515, t518);
        const P t520 = shuffled<1, 3>(t513, t514);
        const P t521 = shuffled<1, 3>(t516, t517);
        const Q t522 = joined(t520, t521);
        // spectrum block of 2
        const Q t523 = t519 + t522;
        io.out(16, 18, 20, 22, t523);
        const Q t524 = t519 - t522;
        io.out(39, 41, 43, 45, t524);
        const P t525 = part<1>(t469);
        const P t526 = part<0>(t477);
        const P t527 = shuffled<0, 2>(t525, t526);
        const P t528 = part<0>(t482);
        const P t529 = part<0>(t486);
        const P t530 = shuffled<0, 2>(t528, t529);
        const Q t531 = joined(t527, t530);
        const P t532 = shuffled<1, 3>(t525, t526);
        const P t533 = shuffled<1, 3>(t528, t529);
        const Q t534 = joined(t532, t533);
        // spectrum block of 2
        const Q t535 = t531 + t534;
        io.out(24, 26, 28, 30, t535);
        const Q t536 = t531 - t534;
        io.out(1, 3, 5, 7, t536);
        const P t537 = part<1>(t481);
        const P t538 = part<0>(t474);
        const P t539 = shuffled<0, 2>(t537, t538);
        const P t540 = part<1>(t477);
        const P t541 = part<1>(t486);
        const P t542 = shuffled<0, 2>(t540, t541);
        const Q t543 = joined(t539, t542);
        const P t544 = shuffled<1, 3>(t537, t538);
        const P t545 = shuffled<1, 3>(t540, t541);
        const Q t546 = joined(t544, t545);
        // spectrum block of 2
        const Q t547 = t543 + t546;
        io.out(32, 34, 36, 38, t547);
        const Q t548 = t543 - t546;
        io.out(9, 11, 13, 15, t548);
        const P t549 = part<1>(t474);
        const P t550 = shuffled<0, 2>(t549, t490);
        const P t551 = shuffled<1, 3>(t549, t490);
        // spectrum block of 2
        const P t552 = t550 + t551;
        io.out(40, 42, t552);
        const P t553 = t550 - t551;
        io.out(17, 19, t553);
        const P t554 = part<0>(t470);
        const V t555 = part<0>(t554);
        const V t556 = part<1>(t554);
        // spectrum block of 2
        const V t557 = t555 + t556;
        io.out(44, t557);
        const V t558 = t555 - t556;
        io.out(21, t558);
    }
};

}  // namespace zulg
