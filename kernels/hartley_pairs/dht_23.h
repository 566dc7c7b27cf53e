// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 23.
// Hartley transform of 23 points, form I; two lanes to a register.
// 111 sums, 45 differences, 122 products of registers, which do the 571 steps of the graph, those with
// `scale` included; 68 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<23> {
    static constexpr int steps = 571;  // with `scale`
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
    static constexpr double constants[] = {
        0.8412535328311812,  // c[0]: cos 2 pi 1/11
        0.41541501300188644,  // c[1]: cos 2 pi 9/11
        0.14231483827328514,  // c[2]: -cos 2 pi 3/11
        0.6548607339452851,  // c[3]: -cos 2 pi 4/11
        0.9594929736144974,  // c[4]: -cos 2 pi 6/11
        0.9096319953545183,  // c[5]: -sin 2 pi 9/11
        0.5406408174555976,  // c[6]: sin 2 pi 1/11
        0.28173255684142967,  // c[7]: -sin 2 pi 6/11
        0.9898214418809327,  // c[8]: sin 2 pi 3/11
        0.7557495743542583,  // c[9]: sin 2 pi 4/11
        0.4304011613922187,  // c[10]: -Q[1] of 23
        0.06955203016683642,  // c[11]: -P[1] of 23
        0.04453017869194607,  // c[12]: P[2] of 23
        0.43370463199482034,  // c[13]: Q[2] of 23
        0.33652924658242556,  // c[14]: Q[3] of 23
        0.27718353274096963,  // c[15]: -P[3] of 23
        0.37256465572342584,  // c[16]: P[4] of 23
        0.22644695169903334,  // c[17]: Q[4] of 23
        0.005975249750696167,  // c[18]: Q[5] of 23
        0.43594373606982356,  // c[19]: -P[5] of 23
        0.16641042622004737,  // c[20]: P[6] of 23
        0.4029766924691319,  // c[21]: Q[6] of 23
        0.3989562961623703,  // c[22]: -Q[7] of 23
        0.17583093692664623,  // c[23]: -P[7] of 23
        0.005134227435360646,  // c[24]: -P[8] of 23
        0.43595445213547385,  // c[25]: -Q[8] of 23
        0.028555549440596593,  // c[26]: P[9] of 23
        0.43504853203320293,  // c[27]: Q[9] of 23
        0.4300007996022861,  // c[28]: P[10] of 23
        0.07198581089002037,  // c[29]: -Q[10] of 23
        0.045454545454545456,  // c[30]: 1/22
        0.21799234196875997,  // c[31]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x22_21 = io.in(22, 21);
        // input stage
        const P t0 = x1_2 + x22_21;
        const P t1 = x1_2 - x22_21;
        const P x3_4 = io.in(3, 4);
        const P x20_19 = io.in(20, 19);
        const P t2 = x3_4 + x20_19;
        const P t3 = x3_4 - x20_19;
        const P x5_6 = io.in(5, 6);
        const P x18_17 = io.in(18, 17);
        const P t4 = x5_6 + x18_17;
        const P t5 = x5_6 - x18_17;
        const P x7_8 = io.in(7, 8);
        const P x16_15 = io.in(16, 15);
        const P t6 = x7_8 + x16_15;
        const P t7 = x7_8 - x16_15;
        const P x9_10 = io.in(9, 10);
        const P x14_13 = io.in(14, 13);
        const P t8 = x9_10 + x14_13;
        const P t9 = x9_10 - x14_13;
        const V x11 = io.in(11);
        const V x12 = io.in(12);
        const V t10 = x11 + x12;
        const V t11 = x11 - x12;
        const P t12 = shuffled<0, 2>(t4, t9);
        const P t13 = shuffled<0, 2>(t8, t5);
        const P t14 = flipped<0, 1>(t13);
        // real block of 11
        const P t15 = t12 + t14;
        const P t16 = t12 - t14;
        const P t17 = shuffled<1, 3>(t0, t1);
        const V t18 = flipped<1>(t11);
        const P t19 = joined(t10, t18);
        const P t20 = t17 + t19;
        const P t21 = flipped<0, 1>(t19);
        const P t22 = flipped<1, 0>(t17);
        const P t23 = t21 + t22;
        const P t24 = shuffled<1, 3>(t8, t9);
        const P t25 = shuffled<0, 2>(t6, t7);
        const P t26 = t24 + t25;
        const P t27 = shuffled<0, 3>(t24, t25);
        const P t28 = shuffled<0, 3>(t25, t24);
        const P t29 = t27 - t28;
        const P t30 = shuffled<1, 3>(t2, t3);
        const P t31 = shuffled<1, 3>(t4, t5);
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P t34 = shuffled<1, 3>(t6, t7);
        const P t35 = shuffled<0, 2>(t2, t3);
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P t38 = t15 + t20;
        const P t39 = flipped<0, 1>(t26);
        const P t40 = t38 + t39;
        const P t41 = t40 + t32;
        const P t42 = t41 + t36;
        const P t43 = shuffled<0, 2>(t0, t1);
        const P t44 = t42 + t43;
        const P t45 = c[0] * t15;
        const P t46 = c[1] * t20;
        const P t47 = t45 + t46;
        const P t48 = P(-c[2], c[2]) * t26;
        const P t49 = t47 + t48;
        const P t50 = c[3] * t32;
        const P t51 = t49 - t50;
        const P t52 = c[4] * t36;
        const P t53 = t51 - t52;
        const P t54 = t53 + t43;
        const P t55 = c[5] * t23;
        const P t56 = c[6] * t16;
        const P t57 = shuffled<0, 3>(t55, t56);
        const P t58 = c[7] * t37;
        const P t59 = t57 + t58;
        const P t60 = shuffled<0, 3>(t56, t55);
        const P t61 = t59 - t60;
        const P t62 = c[8] * t29;
        const P t63 = t61 - t62;
        const P t64 = c[9] * t33;
        const P t65 = t63 - t64;
        const P t66 = c[1] * t15;
        const P t67 = c[3] * t20;
        const P t68 = t66 - t67;
        const P t69 = P(-c[4], c[4]) * t26;
        const P t70 = t68 + t69;
        const P t71 = c[2] * t32;
        const P t72 = t70 - t71;
        const P t73 = c[0] * t36;
        const P t74 = t72 + t73;
        const P t75 = t74 + t43;
        const P t76 = c[9] * t23;
        const P t77 = c[5] * t16;
        const P t78 = shuffled<0, 3>(t76, t77);
        const P t79 = c[7] * t29;
        const P t80 = t78 + t79;
        const P t81 = c[8] * t33;
        const P t82 = t80 + t81;
        const P t83 = shuffled<0, 3>(t77, t76);
        const P t84 = t82 - t83;
        const P t85 = c[6] * t37;
        const P t86 = t84 - t85;
        const P t87 = c[2] * t15;
        const P t88 = t43 - t87;
        const P t89 = c[4] * t20;
        const P t90 = t88 - t89;
        const P t91 = P(c[1], -c[1]) * t26;
        const P t92 = t90 + t91;
        const P t93 = c[0] * t32;
        const P t94 = t92 + t93;
        const P t95 = c[3] * t36;
        const P t96 = t94 - t95;
        const P t97 = c[5] * t29;
        const P t98 = c[8] * t16;
        const P t99 = shuffled<0, 3>(t97, t98);
        const P t100 = c[9] * t37;
        const P t101 = c[7] * t23;
        const P t102 = shuffled<0, 3>(t100, t101);
        const P t103 = t99 + t102;
        const P t104 = shuffled<0, 3>(t98, t97);
        const P t105 = flipped<1, 0>(t104);
        const P t106 = t103 + t105;
        const P t107 = shuffled<0, 3>(t101, t100);
        const P t108 = flipped<1, 0>(t107);
        const P t109 = t106 + t108;
        const P t110 = c[6] * t33;
        const P t111 = t109 - t110;
        const P t112 = c[3] * t15;
        const P t113 = t43 - t112;
        const P t114 = c[2] * t20;
        const P t115 = t113 - t114;
        const P t116 = P(c[0], -c[0]) * t26;
        const P t117 = t115 + t116;
        const P t118 = c[4] * t32;
        const P t119 = t117 - t118;
        const P t120 = c[1] * t36;
        const P t121 = t119 + t120;
        const P t122 = c[9] * t16;
        const P t123 = c[8] * t23;
        const P t124 = t122 + t123;
        const P t125 = P(c[6], -c[6]) * t29;
        const P t126 = t124 + t125;
        const P t127 = P(c[7], -c[7]) * t33;
        const P t128 = t126 + t127;
        const P t129 = P(c[5], -c[5]) * t37;
        const P t130 = t128 + t129;
        const P t131 = c[4] * t15;
        const P t132 = t43 - t131;
        const P t133 = c[0] * t20;
        const P t134 = t132 + t133;
        const P t135 = P(-c[3], c[3]) * t26;
        const P t136 = t134 + t135;
        const P t137 = c[1] * t32;
        const P t138 = t136 + t137;
        const P t139 = c[2] * t36;
        const P t140 = t138 - t139;
        const P t141 = c[5] * t33;
        const P t142 = c[7] * t16;
        const P t143 = shuffled<0, 3>(t141, t142);
        const P t144 = c[8] * t37;
        const P t145 = c[6] * t23;
        const P t146 = shuffled<0, 3>(t144, t145);
        const P t147 = t143 + t146;
        const P t148 = shuffled<0, 3>(t142, t141);
        const P t149 = flipped<1, 0>(t148);
        const P t150 = t147 + t149;
        const P t151 = shuffled<0, 3>(t145, t144);
        const P t152 = flipped<1, 0>(t151);
        const P t153 = t150 + t152;
        const P t154 = c[9] * t29;
        const P t155 = t153 - t154;
        const V x0 = io.in(0);
        const V t156 = part<0>(t44);
        // spectrum block of 23
        const V t157 = c[30] * t156;
        const V t158 = x0 - t157;
        const P t159 = shuffled<1, 3>(t140, t155);
        const P t160 = c[10] * t159;
        const P t161 = shuffled<1, 0>(t159);
        const P t162 = P(c[11], -c[11]) * t161;
        const P t163 = t160 + t162;
        const P t164 = shuffled<0, 2>(t54, t65);
        const P t165 = c[12] * t164;
        const P t166 = shuffled<1, 0>(t164);
        const P t167 = P(-c[13], c[13]) * t166;
        const P t168 = t165 + t167;
        const P t169 = shuffled<1, 3>(t121, t130);
        const P t170 = c[14] * t169;
        const P t171 = shuffled<1, 0>(t169);
        const P t172 = P(-c[15], c[15]) * t171;
        const P t173 = t170 + t172;
        const P t174 = shuffled<0, 2>(t75, t86);
        const P t175 = c[16] * t174;
        const P t176 = shuffled<1, 0>(t174);
        const P t177 = P(-c[17], c[17]) * t176;
        const P t178 = t175 + t177;
        const P t179 = shuffled<1, 3>(t96, t111);
        const P t180 = c[18] * t179;
        const P t181 = shuffled<1, 0>(t179);
        const P t182 = P(-c[19], c[19]) * t181;
        const P t183 = t180 + t182;
        const P t184 = shuffled<0, 2>(t96, t111);
        const P t185 = c[20] * t184;
        const P t186 = shuffled<1, 0>(t184);
        const P t187 = P(-c[21], c[21]) * t186;
        const P t188 = t185 + t187;
        const P t189 = shuffled<1, 3>(t75, t86);
        const P t190 = c[22] * t189;
        const P t191 = shuffled<1, 0>(t189);
        const P t192 = P(c[23], -c[23]) * t191;
        const P t193 = t190 + t192;
        const P t194 = shuffled<0, 2>(t121, t130);
        const P t195 = c[24] * t194;
        const P t196 = shuffled<1, 0>(t194);
        const P t197 = P(c[25], -c[25]) * t196;
        const P t198 = t195 + t197;
        const P t199 = shuffled<1, 3>(t65, t54);
        const P t200 = c[26] * t199;
        const P t201 = shuffled<1, 0>(t199);
        const P t202 = P(c[27], -c[27]) * t201;
        const P t203 = t200 + t202;
        const P t204 = shuffled<0, 2>(t140, t155);
        const P t205 = c[28] * t204;
        const P t206 = shuffled<1, 0>(t204);
        const P t207 = P(c[29], -c[29]) * t206;
        const P t208 = t205 + t207;
        const P t209 = shuffled<0, 2>(t168, t203);
        const P t210 = shuffled<0, 2>(t178, t193);
        const P t211 = flipped<0, 1>(t210);
        // spectrum block of 11, multiplier 2
        const P t212 = t209 + t211;
        const P t213 = shuffled<0, 2>(t188, t183);
        const P t214 = t212 + t213;
        const P t215 = shuffled<0, 2>(t198, t173);
        const P t216 = flipped<1, 0>(t215);
        const P t217 = t214 + t216;
        const P t218 = shuffled<0, 2>(t208, t163);
        const P t219 = flipped<0, 1>(t218);
        const P t220 = t217 + t219;
        const V t221 = part<1>(t44);
        // spectrum block of 23
        const V t222 = -c[31] * t221;
        const P t223 = joined(t158, t222);
        // spectrum block of 11, multiplier 2
        const P t224 = t220 + t223;
        const P t225 = c[0] * t209;
        const P t226 = P(c[1], -c[1]) * t210;
        const P t227 = t225 + t226;
        const P t228 = c[2] * t213;
        const P t229 = t227 - t228;
        const P t230 = P(c[3], -c[3]) * t215;
        const P t231 = t229 + t230;
        const P t232 = P(-c[4], c[4]) * t218;
        const P t233 = t231 + t232;
        const P t234 = t233 + t223;
        const P t235 = shuffled<1, 3>(t168, t203);
        const P t236 = c[6] * t235;
        const P t237 = shuffled<1, 3>(t178, t193);
        const P t238 = c[5] * t237;
        const P t239 = t236 + t238;
        const P t240 = shuffled<1, 3>(t188, t183);
        const P t241 = c[8] * t240;
        const P t242 = flipped<0, 1>(t239);
        const P t243 = t241 + t242;
        const P t244 = shuffled<1, 3>(t198, t173);
        const P t245 = c[9] * t244;
        const P t246 = t243 + t245;
        const P t247 = shuffled<1, 3>(t208, t163);
        const P t248 = P(c[7], -c[7]) * t247;
        const P t249 = t246 + t248;
        const P t250 = t234 - t249;
        const P t251 = t234 + t249;
        const P t252 = c[1] * t209;
        const P t253 = P(-c[3], c[3]) * t210;
        const P t254 = t252 + t253;
        const P t255 = c[4] * t213;
        const P t256 = t254 - t255;
        const P t257 = P(c[2], -c[2]) * t215;
        const P t258 = t256 + t257;
        const P t259 = P(c[0], -c[0]) * t218;
        const P t260 = t258 + t259;
        const P t261 = t260 + t223;
        const P t262 = c[5] * t235;
        const P t263 = c[9] * t237;
        const P t264 = t262 + t263;
        const P t265 = P(-c[7], c[7]) * t240;
        const P t266 = t264 + t265;
        const P t267 = P(-c[8], c[8]) * t244;
        const P t268 = t266 + t267;
        const P t269 = P(-c[6], c[6]) * t247;
        const P t270 = flipped<0, 1>(t268);
        const P t271 = t269 + t270;
        const P t272 = t261 - t271;
        const P t273 = t261 + t271;
        const P t274 = flipped<0, 1>(t223);
        const P t275 = P(-c[2], c[2]) * t209;
        const P t276 = t274 + t275;
        const P t277 = P(-c[4], c[4]) * t210;
        const P t278 = flipped<0, 1>(t276);
        const P t279 = t277 + t278;
        const P t280 = c[1] * t213;
        const P t281 = t279 + t280;
        const P t282 = P(-c[0], c[0]) * t215;
        const P t283 = t281 + t282;
        const P t284 = P(-c[3], c[3]) * t218;
        const P t285 = t283 + t284;
        const P t286 = P(-c[7], c[7]) * t237;
        const P t287 = P(c[8], -c[8]) * t235;
        const P t288 = t286 + t287;
        const P t289 = c[5] * t240;
        const P t290 = t288 - t289;
        const P t291 = c[6] * t244;
        const P t292 = t290 + t291;
        const P t293 = P(c[9], -c[9]) * t247;
        const P t294 = t292 + t293;
        const P t295 = t285 - t294;
        const P t296 = t285 + t294;
        const P t297 = P(-c[3], c[3]) * t209;
        const P t298 = t274 + t297;
        const P t299 = P(-c[2], c[2]) * t210;
        const P t300 = flipped<0, 1>(t298);
        const P t301 = t299 + t300;
        const P t302 = c[0] * t213;
        const P t303 = t301 + t302;
        const P t304 = P(c[4], -c[4]) * t215;
        const P t305 = t303 + t304;
        const P t306 = P(c[1], -c[1]) * t218;
        const P t307 = t305 + t306;
        const P t308 = P(-c[8], c[8]) * t237;
        const P t309 = P(c[9], -c[9]) * t235;
        const P t310 = t308 + t309;
        const P t311 = c[6] * t240;
        const P t312 = t310 + t311;
        const P t313 = c[7] * t244;
        const P t314 = t312 + t313;
        const P t315 = P(-c[5], c[5]) * t247;
        const P t316 = t314 + t315;
        const P t317 = t307 - t316;
        const P t318 = t307 + t316;
        const P t319 = P(-c[4], c[4]) * t209;
        const P t320 = t274 + t319;
        const P t321 = c[0] * t210;
        const P t322 = t320 + t321;
        const P t323 = P(-c[3], c[3]) * t213;
        const P t324 = t322 + t323;
        const P t325 = P(-c[1], c[1]) * t215;
        const P t326 = flipped<0, 1>(t324);
        const P t327 = t325 + t326;
        const P t328 = P(-c[2], c[2]) * t218;
        const P t329 = t327 + t328;
        const P t330 = P(-c[6], c[6]) * t237;
        const P t331 = P(c[7], -c[7]) * t235;
        const P t332 = t330 + t331;
        const P t333 = c[9] * t240;
        const P t334 = t332 + t333;
        const P t335 = c[5] * t244;
        const P t336 = t334 - t335;
        const P t337 = P(c[8], -c[8]) * t247;
        const P t338 = t336 + t337;
        const P t339 = t329 - t338;
        const P t340 = t329 + t338;
        const P t341 = shuffled<0, 2>(t224, t272);
        const P t342 = shuffled<1, 3>(t224, t272);
        // spectrum block of 2
        const P t343 = t341 + t342;
        io.out(22, 11, t343);
        const P t344 = t341 - t342;
        io.out(1, 12, t344);
        const P t345 = shuffled<0, 2>(t317, t340);
        const P t346 = shuffled<1, 3>(t317, t340);
        // spectrum block of 2
        const P t347 = t345 + t346;
        io.out(17, 20, t347);
        const P t348 = t345 - t346;
        io.out(6, 3, t348);
        const P t349 = shuffled<0, 2>(t296, t251);
        const P t350 = shuffled<1, 3>(t296, t251);
        // spectrum block of 2
        const P t351 = t349 + t350;
        io.out(10, 5, t351);
        const P t352 = t349 - t350;
        io.out(13, 18, t352);
        const P t353 = shuffled<0, 2>(t250, t295);
        const P t354 = shuffled<1, 3>(t250, t295);
        // spectrum block of 2
        const P t355 = t353 + t354;
        io.out(14, 7, t355);
        const P t356 = t353 - t354;
        io.out(9, 16, t356);
        const P t357 = shuffled<0, 2>(t339, t318);
        const P t358 = shuffled<1, 3>(t339, t318);
        // spectrum block of 2
        const P t359 = t357 + t358;
        io.out(15, 19, t359);
        const P t360 = t357 - t358;
        io.out(8, 4, t360);
        const V t361 = part<0>(t273);
        const V t362 = part<1>(t273);
        // spectrum block of 2
        const V t363 = t361 + t362;
        io.out(21, t363);
        const V t364 = t361 - t362;
        io.out(2, t364);
        // spectrum block of 23
        const V t365 = x0 + t156;
        io.out(0, t365);
    }
};

}  // namespace zulg
