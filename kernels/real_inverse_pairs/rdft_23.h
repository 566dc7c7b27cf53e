// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 23.
// Inverse DFT to 23 real points, Rader 11, 2; two lanes to a register.
// 106 sums, 38 differences, 133 products of registers, which do the 571 steps of the graph, those with
// `scale` included; 57 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<23> {
    static constexpr int steps = 571;  // with `scale`
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.8412535328311812,  // c[1]: cos 2 pi 1/11
        0.41541501300188644,  // c[2]: cos 2 pi 9/11
        0.14231483827328514,  // c[3]: -cos 2 pi 3/11
        0.6548607339452851,  // c[4]: -cos 2 pi 4/11
        0.9594929736144974,  // c[5]: -cos 2 pi 6/11
        0.9096319953545183,  // c[6]: -sin 2 pi 9/11
        0.5406408174555976,  // c[7]: sin 2 pi 1/11
        0.28173255684142967,  // c[8]: -sin 2 pi 6/11
        0.9898214418809327,  // c[9]: sin 2 pi 3/11
        0.7557495743542583,  // c[10]: sin 2 pi 4/11
        0.4304011613922187,  // c[11]: -Q[1] of 23
        0.06955203016683642,  // c[12]: -P[1] of 23
        0.04453017869194607,  // c[13]: P[2] of 23
        0.43370463199482034,  // c[14]: Q[2] of 23
        0.33652924658242556,  // c[15]: Q[3] of 23
        0.27718353274096963,  // c[16]: -P[3] of 23
        0.37256465572342584,  // c[17]: P[4] of 23
        0.22644695169903334,  // c[18]: Q[4] of 23
        0.005975249750696167,  // c[19]: Q[5] of 23
        0.43594373606982356,  // c[20]: -P[5] of 23
        0.16641042622004737,  // c[21]: P[6] of 23
        0.4029766924691319,  // c[22]: Q[6] of 23
        0.3989562961623703,  // c[23]: -Q[7] of 23
        0.17583093692664623,  // c[24]: -P[7] of 23
        0.005134227435360646,  // c[25]: -P[8] of 23
        0.43595445213547385,  // c[26]: -Q[8] of 23
        0.028555549440596593,  // c[27]: P[9] of 23
        0.43504853203320293,  // c[28]: Q[9] of 23
        0.4300007996022861,  // c[29]: P[10] of 23
        0.07198581089002037,  // c[30]: -Q[10] of 23
        0.045454545454545456,  // c[31]: 1/22
        0.21799234196875997,  // c[32]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x9 = io.pair(9);
        // doubled bins
        const P t0 = c[0] * x9;
        const P x5 = io.pair(5);
        const P t1 = P(c[0], -c[0]) * x5;
        // real block of 11
        const P t2 = t0 + t1;
        const P t3 = flipped<0, 1>(t1);
        const P t4 = flipped<1, 0>(t0);
        const P t5 = t3 + t4;
        const P x2 = io.pair(2);
        // doubled bins
        const P t6 = c[0] * x2;
        const P x11 = io.pair(11);
        const P t7 = P(c[0], -c[0]) * x11;
        // real block of 11
        const P t8 = t6 + t7;
        const P t9 = flipped<0, 1>(t7);
        const P t10 = flipped<1, 0>(t6);
        const P t11 = t9 + t10;
        const P x10 = io.pair(10);
        // doubled bins
        const P t12 = c[0] * x10;
        const P x7 = io.pair(7);
        const P t13 = c[0] * x7;
        // real block of 11
        const P t14 = t12 + t13;
        const P t15 = shuffled<0, 3>(t12, t13);
        const P t16 = shuffled<0, 3>(t13, t12);
        const P t17 = t15 - t16;
        const P x4 = io.pair(4);
        // doubled bins
        const P t18 = c[0] * x4;
        const P x6 = io.pair(6);
        const P t19 = c[0] * x6;
        // real block of 11
        const P t20 = t18 + t19;
        const P t21 = t18 - t19;
        const P x8 = io.pair(8);
        // doubled bins
        const P t22 = c[0] * x8;
        const P x3 = io.pair(3);
        const P t23 = c[0] * x3;
        // real block of 11
        const P t24 = t22 + t23;
        const P t25 = t22 - t23;
        const P t26 = t2 + t8;
        const P t27 = flipped<0, 1>(t14);
        const P t28 = t26 + t27;
        const P t29 = t28 + t20;
        const P t30 = t29 + t24;
        const P x1 = io.pair(1);
        // doubled bins
        const P t31 = c[0] * x1;
        // real block of 11
        const P t32 = t30 + t31;
        const P t33 = c[1] * t2;
        const P t34 = c[2] * t8;
        const P t35 = t33 + t34;
        const P t36 = P(-c[3], c[3]) * t14;
        const P t37 = t35 + t36;
        const P t38 = c[4] * t20;
        const P t39 = t37 - t38;
        const P t40 = c[5] * t24;
        const P t41 = t39 - t40;
        const P t42 = t41 + t31;
        const P t43 = c[6] * t11;
        const P t44 = c[7] * t5;
        const P t45 = shuffled<0, 3>(t43, t44);
        const P t46 = c[8] * t25;
        const P t47 = t45 + t46;
        const P t48 = shuffled<0, 3>(t44, t43);
        const P t49 = t47 - t48;
        const P t50 = c[9] * t17;
        const P t51 = t49 - t50;
        const P t52 = c[10] * t21;
        const P t53 = t51 - t52;
        const P t54 = c[2] * t2;
        const P t55 = c[4] * t8;
        const P t56 = t54 - t55;
        const P t57 = P(-c[5], c[5]) * t14;
        const P t58 = t56 + t57;
        const P t59 = c[3] * t20;
        const P t60 = t58 - t59;
        const P t61 = c[1] * t24;
        const P t62 = t60 + t61;
        const P t63 = t62 + t31;
        const P t64 = c[10] * t11;
        const P t65 = c[6] * t5;
        const P t66 = shuffled<0, 3>(t64, t65);
        const P t67 = c[8] * t17;
        const P t68 = t66 + t67;
        const P t69 = c[9] * t21;
        const P t70 = t68 + t69;
        const P t71 = shuffled<0, 3>(t65, t64);
        const P t72 = t70 - t71;
        const P t73 = c[7] * t25;
        const P t74 = t72 - t73;
        const P t75 = c[3] * t2;
        const P t76 = t31 - t75;
        const P t77 = c[5] * t8;
        const P t78 = t76 - t77;
        const P t79 = P(c[2], -c[2]) * t14;
        const P t80 = t78 + t79;
        const P t81 = c[1] * t20;
        const P t82 = t80 + t81;
        const P t83 = c[4] * t24;
        const P t84 = t82 - t83;
        const P t85 = c[6] * t17;
        const P t86 = c[9] * t5;
        const P t87 = shuffled<0, 3>(t85, t86);
        const P t88 = c[10] * t25;
        const P t89 = c[8] * t11;
        const P t90 = shuffled<0, 3>(t88, t89);
        const P t91 = t87 + t90;
        const P t92 = shuffled<0, 3>(t86, t85);
        const P t93 = flipped<1, 0>(t92);
        const P t94 = t91 + t93;
        const P t95 = shuffled<0, 3>(t89, t88);
        const P t96 = flipped<1, 0>(t95);
        const P t97 = t94 + t96;
        const P t98 = c[7] * t21;
        const P t99 = t97 - t98;
        const P t100 = c[4] * t2;
        const P t101 = t31 - t100;
        const P t102 = c[3] * t8;
        const P t103 = t101 - t102;
        const P t104 = P(c[1], -c[1]) * t14;
        const P t105 = t103 + t104;
        const P t106 = c[5] * t20;
        const P t107 = t105 - t106;
        const P t108 = c[2] * t24;
        const P t109 = t107 + t108;
        const P t110 = c[10] * t5;
        const P t111 = c[9] * t11;
        const P t112 = t110 + t111;
        const P t113 = P(c[7], -c[7]) * t17;
        const P t114 = t112 + t113;
        const P t115 = P(c[8], -c[8]) * t21;
        const P t116 = t114 + t115;
        const P t117 = P(c[6], -c[6]) * t25;
        const P t118 = t116 + t117;
        const P t119 = c[5] * t2;
        const P t120 = t31 - t119;
        const P t121 = c[1] * t8;
        const P t122 = t120 + t121;
        const P t123 = P(-c[4], c[4]) * t14;
        const P t124 = t122 + t123;
        const P t125 = c[2] * t20;
        const P t126 = t124 + t125;
        const P t127 = c[3] * t24;
        const P t128 = t126 - t127;
        const P t129 = c[6] * t21;
        const P t130 = c[8] * t5;
        const P t131 = shuffled<0, 3>(t129, t130);
        const P t132 = c[9] * t25;
        const P t133 = c[7] * t11;
        const P t134 = shuffled<0, 3>(t132, t133);
        const P t135 = t131 + t134;
        const P t136 = shuffled<0, 3>(t130, t129);
        const P t137 = flipped<1, 0>(t136);
        const P t138 = t135 + t137;
        const P t139 = shuffled<0, 3>(t133, t132);
        const P t140 = flipped<1, 0>(t139);
        const P t141 = t138 + t140;
        const P t142 = c[10] * t17;
        const P t143 = t141 - t142;
        const V x0r = io.re(0);
        const V t144 = part<0>(t32);
        // spectrum block of 23
        const V t145 = c[31] * t144;
        const V t146 = x0r - t145;
        const P t147 = shuffled<1, 3>(t128, t143);
        const P t148 = c[11] * t147;
        const P t149 = shuffled<1, 0>(t147);
        const P t150 = P(c[12], -c[12]) * t149;
        const P t151 = t148 + t150;
        const P t152 = shuffled<0, 2>(t42, t53);
        const P t153 = c[13] * t152;
        const P t154 = shuffled<1, 0>(t152);
        const P t155 = P(-c[14], c[14]) * t154;
        const P t156 = t153 + t155;
        const P t157 = shuffled<1, 3>(t109, t118);
        const P t158 = c[15] * t157;
        const P t159 = shuffled<1, 0>(t157);
        const P t160 = P(-c[16], c[16]) * t159;
        const P t161 = t158 + t160;
        const P t162 = shuffled<0, 2>(t63, t74);
        const P t163 = c[17] * t162;
        const P t164 = shuffled<1, 0>(t162);
        const P t165 = P(-c[18], c[18]) * t164;
        const P t166 = t163 + t165;
        const P t167 = shuffled<1, 3>(t84, t99);
        const P t168 = c[19] * t167;
        const P t169 = shuffled<1, 0>(t167);
        const P t170 = P(-c[20], c[20]) * t169;
        const P t171 = t168 + t170;
        const P t172 = shuffled<0, 2>(t84, t99);
        const P t173 = c[21] * t172;
        const P t174 = shuffled<1, 0>(t172);
        const P t175 = P(-c[22], c[22]) * t174;
        const P t176 = t173 + t175;
        const P t177 = shuffled<1, 3>(t63, t74);
        const P t178 = c[23] * t177;
        const P t179 = shuffled<1, 0>(t177);
        const P t180 = P(c[24], -c[24]) * t179;
        const P t181 = t178 + t180;
        const P t182 = shuffled<0, 2>(t109, t118);
        const P t183 = c[25] * t182;
        const P t184 = shuffled<1, 0>(t182);
        const P t185 = P(c[26], -c[26]) * t184;
        const P t186 = t183 + t185;
        const P t187 = shuffled<1, 3>(t53, t42);
        const P t188 = c[27] * t187;
        const P t189 = shuffled<1, 0>(t187);
        const P t190 = P(c[28], -c[28]) * t189;
        const P t191 = t188 + t190;
        const P t192 = shuffled<0, 2>(t128, t143);
        const P t193 = c[29] * t192;
        const P t194 = shuffled<1, 0>(t192);
        const P t195 = P(c[30], -c[30]) * t194;
        const P t196 = t193 + t195;
        const P t197 = shuffled<0, 2>(t156, t191);
        const P t198 = shuffled<0, 2>(t166, t181);
        const P t199 = flipped<0, 1>(t198);
        // spectrum block of 11, multiplier 2
        const P t200 = t197 + t199;
        const P t201 = shuffled<0, 2>(t176, t171);
        const P t202 = t200 + t201;
        const P t203 = shuffled<0, 2>(t186, t161);
        const P t204 = flipped<1, 0>(t203);
        const P t205 = t202 + t204;
        const P t206 = shuffled<0, 2>(t196, t151);
        const P t207 = flipped<0, 1>(t206);
        const P t208 = t205 + t207;
        const V t209 = part<1>(t32);
        // spectrum block of 23
        const V t210 = -c[32] * t209;
        const P t211 = joined(t146, t210);
        // spectrum block of 11, multiplier 2
        const P t212 = t208 + t211;
        const P t213 = c[1] * t197;
        const P t214 = P(c[2], -c[2]) * t198;
        const P t215 = t213 + t214;
        const P t216 = c[3] * t201;
        const P t217 = t215 - t216;
        const P t218 = P(c[4], -c[4]) * t203;
        const P t219 = t217 + t218;
        const P t220 = P(-c[5], c[5]) * t206;
        const P t221 = t219 + t220;
        const P t222 = t221 + t211;
        const P t223 = shuffled<1, 3>(t156, t191);
        const P t224 = c[7] * t223;
        const P t225 = shuffled<1, 3>(t166, t181);
        const P t226 = c[6] * t225;
        const P t227 = t224 + t226;
        const P t228 = shuffled<1, 3>(t176, t171);
        const P t229 = c[9] * t228;
        const P t230 = flipped<0, 1>(t227);
        const P t231 = t229 + t230;
        const P t232 = shuffled<1, 3>(t186, t161);
        const P t233 = c[10] * t232;
        const P t234 = t231 + t233;
        const P t235 = shuffled<1, 3>(t196, t151);
        const P t236 = P(c[8], -c[8]) * t235;
        const P t237 = t234 + t236;
        const P t238 = t222 - t237;
        const P t239 = t222 + t237;
        const P t240 = c[2] * t197;
        const P t241 = P(-c[4], c[4]) * t198;
        const P t242 = t240 + t241;
        const P t243 = c[5] * t201;
        const P t244 = t242 - t243;
        const P t245 = P(c[3], -c[3]) * t203;
        const P t246 = t244 + t245;
        const P t247 = P(c[1], -c[1]) * t206;
        const P t248 = t246 + t247;
        const P t249 = t248 + t211;
        const P t250 = c[6] * t223;
        const P t251 = c[10] * t225;
        const P t252 = t250 + t251;
        const P t253 = P(-c[8], c[8]) * t228;
        const P t254 = t252 + t253;
        const P t255 = P(-c[9], c[9]) * t232;
        const P t256 = t254 + t255;
        const P t257 = P(-c[7], c[7]) * t235;
        const P t258 = flipped<0, 1>(t256);
        const P t259 = t257 + t258;
        const P t260 = t249 - t259;
        const P t261 = t249 + t259;
        const P t262 = flipped<0, 1>(t211);
        const P t263 = P(-c[3], c[3]) * t197;
        const P t264 = t262 + t263;
        const P t265 = P(-c[5], c[5]) * t198;
        const P t266 = flipped<0, 1>(t264);
        const P t267 = t265 + t266;
        const P t268 = c[2] * t201;
        const P t269 = t267 + t268;
        const P t270 = P(-c[1], c[1]) * t203;
        const P t271 = t269 + t270;
        const P t272 = P(-c[4], c[4]) * t206;
        const P t273 = t271 + t272;
        const P t274 = P(-c[8], c[8]) * t225;
        const P t275 = P(c[9], -c[9]) * t223;
        const P t276 = t274 + t275;
        const P t277 = c[6] * t228;
        const P t278 = t276 - t277;
        const P t279 = c[7] * t232;
        const P t280 = t278 + t279;
        const P t281 = P(c[10], -c[10]) * t235;
        const P t282 = t280 + t281;
        const P t283 = t273 - t282;
        const P t284 = t273 + t282;
        const P t285 = P(-c[4], c[4]) * t197;
        const P t286 = t262 + t285;
        const P t287 = P(-c[3], c[3]) * t198;
        const P t288 = flipped<0, 1>(t286);
        const P t289 = t287 + t288;
        const P t290 = c[1] * t201;
        const P t291 = t289 + t290;
        const P t292 = P(c[5], -c[5]) * t203;
        const P t293 = t291 + t292;
        const P t294 = P(c[2], -c[2]) * t206;
        const P t295 = t293 + t294;
        const P t296 = P(-c[9], c[9]) * t225;
        const P t297 = P(c[10], -c[10]) * t223;
        const P t298 = t296 + t297;
        const P t299 = c[7] * t228;
        const P t300 = t298 + t299;
        const P t301 = c[8] * t232;
        const P t302 = t300 + t301;
        const P t303 = P(-c[6], c[6]) * t235;
        const P t304 = t302 + t303;
        const P t305 = t295 - t304;
        const P t306 = t295 + t304;
        const P t307 = P(-c[5], c[5]) * t197;
        const P t308 = t262 + t307;
        const P t309 = c[1] * t198;
        const P t310 = t308 + t309;
        const P t311 = P(-c[4], c[4]) * t201;
        const P t312 = t310 + t311;
        const P t313 = P(-c[2], c[2]) * t203;
        const P t314 = flipped<0, 1>(t312);
        const P t315 = t313 + t314;
        const P t316 = P(-c[3], c[3]) * t206;
        const P t317 = t315 + t316;
        const P t318 = P(-c[7], c[7]) * t225;
        const P t319 = P(c[8], -c[8]) * t223;
        const P t320 = t318 + t319;
        const P t321 = c[10] * t228;
        const P t322 = t320 + t321;
        const P t323 = c[6] * t232;
        const P t324 = t322 - t323;
        const P t325 = P(c[9], -c[9]) * t235;
        const P t326 = t324 + t325;
        const P t327 = t317 - t326;
        const P t328 = t317 + t326;
        const P t329 = shuffled<0, 2>(t212, t260);
        const P t330 = shuffled<1, 3>(t212, t260);
        // spectrum block of 2
        const P t331 = t329 + t330;
        io.out(1, 12, t331);
        const P t332 = t329 - t330;
        io.out(22, 11, t332);
        const P t333 = shuffled<0, 2>(t305, t328);
        const P t334 = shuffled<1, 3>(t305, t328);
        // spectrum block of 2
        const P t335 = t333 + t334;
        io.out(6, 3, t335);
        const P t336 = t333 - t334;
        io.out(17, 20, t336);
        const P t337 = shuffled<0, 2>(t284, t239);
        const P t338 = shuffled<1, 3>(t284, t239);
        // spectrum block of 2
        const P t339 = t337 + t338;
        io.out(13, 18, t339);
        const P t340 = t337 - t338;
        io.out(10, 5, t340);
        const P t341 = shuffled<0, 2>(t238, t283);
        const P t342 = shuffled<1, 3>(t238, t283);
        // spectrum block of 2
        const P t343 = t341 + t342;
        io.out(9, 16, t343);
        const P t344 = t341 - t342;
        io.out(14, 7, t344);
        const P t345 = shuffled<0, 2>(t327, t306);
        const P t346 = shuffled<1, 3>(t327, t306);
        // spectrum block of 2
        const P t347 = t345 + t346;
        io.out(8, 4, t347);
        const P t348 = t345 - t346;
        io.out(15, 19, t348);
        const V t349 = part<0>(t261);
        const V t350 = part<1>(t261);
        // spectrum block of 2
        const V t351 = t349 + t350;
        io.out(2, t351);
        const V t352 = t349 - t350;
        io.out(21, t352);
        // spectrum block of 23
        const V t353 = x0r + t144;
        io.out(0, t353);
    }
};

}  // namespace zulg
