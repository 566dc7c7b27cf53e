// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 62.
// Inverse DFT to 62 real points, prime-factor 31, 2; two lanes to a register.
// 198 sums, 150 differences, 224 products of registers, which do the 1204 steps of the graph, those with
// `scale` included; 66 shuffles, 21 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<62> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.30901699437494745,  // c[2]: cos 2 pi 9/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.9510565162951535,  // c[4]: -sin 2 pi 9/5
        0.5,  // c[5]: -cos 2 pi 2/3
        0.8660254037844386,  // c[6]: -sin 2 pi 2/3
        0.3386491040641593,  // c[7]: -Q[1] of 31
        0.15196895108646355,  // c[8]: P[1] of 31
        0.21884316352804659,  // c[9]: Q[2] of 31
        0.29980901846811486,  // c[10]: -P[2] of 31
        0.37067181273221134,  // c[11]: P[3] of 31
        0.019498333867134416,  // c[12]: -Q[3] of 31
        0.3665614991633792,  // c[13]: P[4] of 31
        0.05839901633481273,  // c[14]: Q[4] of 31
        0.2580069240952765,  // c[15]: -Q[5] of 31
        0.26685240283098827,  // c[16]: -P[5] of 31
        0.2970284107916672,  // c[17]: P[6] of 31
        0.2226025627892778,  // c[18]: Q[6] of 31
        0.28075102554360776,  // c[19]: -Q[7] of 31
        0.24280988331200667,  // c[20]: P[7] of 31
        0.35531525594489755,  // c[21]: P[8] of 31
        0.1073724670043011,  // c[22]: -Q[8] of 31
        0.008505491359144196,  // c[23]: -Q[9] of 31
        0.37108682864596165,  // c[24]: -P[9] of 31
        0.3417205692768941,  // c[25]: P[10] of 31
        0.1449304326594425,  // c[26]: Q[10] of 31
        0.36539376648991023,  // c[27]: Q[11] of 31
        0.06530829340975558,  // c[28]: -P[11] of 31
        0.35709323166839874,  // c[29]: -P[12] of 31
        0.10130252550848418,  // c[30]: Q[12] of 31
        0.3312534027537607,  // c[31]: Q[13] of 31
        0.1674782402040115,  // c[32]: P[13] of 31
        0.2485676599132395,  // c[33]: P[14] of 31
        0.27566627690567064,  // c[34]: Q[14] of 31
        0.03333333333333333,  // c[35]: 1/30
        0.1855921454276674,  // c[36]: -beta of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x10 = io.pair(10);
        // doubled bins
        const P t0 = c[0] * x10;
        const P x21 = io.pair(21);
        const P t1 = c[0] * x21;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x12 = io.pair(12);
        const P t3 = c[0] * x12;
        const P x19 = io.pair(19);
        const P t4 = c[0] * x19;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 3, multiplier 2
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x2 = io.pair(2);
        // doubled bins
        const P t8 = c[0] * x2;
        const P x29 = io.pair(29);
        const P t9 = c[0] * x29;
        const P t10 = shuffled<0, 2>(t8, t9);
        // real block of 3, multiplier 2
        const P t11 = t6 + t10;
        const P t12 = c[5] * t6;
        const P t13 = t10 - t12;
        const P x22 = io.pair(22);
        // doubled bins
        const P t14 = c[0] * x22;
        const P x9 = io.pair(9);
        const P t15 = c[0] * x9;
        const P t16 = shuffled<0, 2>(t14, t15);
        const P x14 = io.pair(14);
        const P t17 = c[0] * x14;
        const P x17 = io.pair(17);
        const P t18 = c[0] * x17;
        const P t19 = shuffled<0, 2>(t17, t18);
        // real block of 3, multiplier 2
        const P t20 = t16 + t19;
        const P t21 = t16 - t19;
        const P x8 = io.pair(8);
        // doubled bins
        const P t22 = c[0] * x8;
        const P x23 = io.pair(23);
        const P t23 = c[0] * x23;
        const P t24 = shuffled<0, 2>(t22, t23);
        // real block of 3, multiplier 2
        const P t25 = t20 + t24;
        const P t26 = c[5] * t20;
        const P t27 = t24 - t26;
        const P x26 = io.pair(26);
        // doubled bins
        const P t28 = c[0] * x26;
        const P x5 = io.pair(5);
        const P t29 = c[0] * x5;
        const P t30 = shuffled<0, 2>(t28, t29);
        const P x6 = io.pair(6);
        const P t31 = c[0] * x6;
        const P x25 = io.pair(25);
        const P t32 = c[0] * x25;
        const P t33 = shuffled<0, 2>(t31, t32);
        // real block of 3, multiplier 2
        const P t34 = t30 + t33;
        const P t35 = t30 - t33;
        const P x30 = io.pair(30);
        // doubled bins
        const P t36 = c[0] * x30;
        const P x1 = io.pair(1);
        const P t37 = c[0] * x1;
        const P t38 = shuffled<0, 2>(t36, t37);
        // real block of 3, multiplier 2
        const P t39 = t34 + t38;
        const P t40 = c[5] * t34;
        const P t41 = t38 - t40;
        const P x20 = io.pair(20);
        // doubled bins
        const P t42 = c[0] * x20;
        const P x11 = io.pair(11);
        const P t43 = c[0] * x11;
        const P t44 = shuffled<0, 2>(t42, t43);
        const P x24 = io.pair(24);
        const P t45 = c[0] * x24;
        const P x7 = io.pair(7);
        const P t46 = c[0] * x7;
        const P t47 = shuffled<0, 2>(t45, t46);
        // real block of 3, multiplier 2
        const P t48 = t44 + t47;
        const P t49 = t44 - t47;
        const P x4 = io.pair(4);
        // doubled bins
        const P t50 = c[0] * x4;
        const P x27 = io.pair(27);
        const P t51 = c[0] * x27;
        const P t52 = shuffled<0, 2>(t50, t51);
        // real block of 3, multiplier 2
        const P t53 = t48 + t52;
        const P t54 = c[5] * t48;
        const P t55 = t52 - t54;
        const P x18 = io.pair(18);
        // doubled bins
        const P t56 = c[0] * x18;
        const P x13 = io.pair(13);
        const P t57 = c[0] * x13;
        const P t58 = shuffled<0, 2>(t56, t57);
        const P x28 = io.pair(28);
        const P t59 = c[0] * x28;
        const P x3 = io.pair(3);
        const P t60 = c[0] * x3;
        const P t61 = shuffled<0, 2>(t59, t60);
        // real block of 3, multiplier 2
        const P t62 = t58 + t61;
        const P t63 = t58 - t61;
        const P x16 = io.pair(16);
        // doubled bins
        const P t64 = c[0] * x16;
        const P x15 = io.pair(15);
        const P t65 = c[0] * x15;
        const P t66 = shuffled<0, 2>(t64, t65);
        // real block of 3, multiplier 2
        const P t67 = t62 + t66;
        const P t68 = c[5] * t62;
        const P t69 = t66 - t68;
        // real block of 5, multiplier 3
        const P t70 = t25 + t67;
        const P t71 = t25 - t67;
        const P t72 = t53 + t39;
        const P t73 = t53 - t39;
        const P t74 = t70 + t72;
        const P t75 = t74 + t11;
        const P t76 = c[1] * t70;
        const P t77 = t11 - t76;
        const P t78 = c[2] * t72;
        const P t79 = t77 + t78;
        const P t80 = c[3] * t71;
        const P t81 = c[4] * t73;
        const P t82 = t80 + t81;
        const P t83 = c[2] * t70;
        const P t84 = c[1] * t72;
        const P t85 = t83 - t84;
        const P t86 = t85 + t11;
        const P t87 = c[3] * t73;
        const P t88 = c[4] * t71;
        const P t89 = t87 - t88;
        // complex block of 5, multiplier 3
        const P t90 = t27 + t69;
        // real block of 3, multiplier 2
        const P t91 = c[6] * t21;
        // real block of 3, multiplier 2
        const P t92 = c[6] * t63;
        // complex block of 5, multiplier 3
        const P t93 = t91 + t92;
        const P t94 = t27 - t69;
        const P t95 = t91 - t92;
        const P t96 = t55 + t41;
        // real block of 3, multiplier 2
        const P t97 = c[6] * t49;
        // real block of 3, multiplier 2
        const P t98 = c[6] * t35;
        // complex block of 5, multiplier 3
        const P t99 = t97 + t98;
        const P t100 = t55 - t41;
        const P t101 = t97 - t98;
        const P t102 = t90 + t96;
        const P t103 = t93 + t99;
        const P t104 = t102 + t13;
        // real block of 3, multiplier 2
        const P t105 = c[6] * t7;
        // complex block of 5, multiplier 3
        const P t106 = t103 + t105;
        const P t107 = c[2] * t90;
        const P t108 = c[1] * t96;
        const P t109 = t107 - t108;
        const P t110 = t109 + t13;
        const P t111 = c[2] * t93;
        const P t112 = c[1] * t99;
        const P t113 = t111 - t112;
        const P t114 = t113 + t105;
        const P t115 = c[4] * t94;
        const P t116 = c[3] * t100;
        const P t117 = t115 - t116;
        const P t118 = c[4] * t95;
        const P t119 = c[3] * t101;
        const P t120 = t118 - t119;
        const P t121 = t110 + t120;
        const P t122 = t114 - t117;
        const P t123 = t110 - t120;
        const P t124 = t114 + t117;
        const P t125 = c[1] * t90;
        const P t126 = t13 - t125;
        const P t127 = c[2] * t96;
        const P t128 = t126 + t127;
        const P t129 = c[1] * t93;
        const P t130 = t105 - t129;
        const P t131 = c[2] * t99;
        const P t132 = t130 + t131;
        const P t133 = c[3] * t94;
        const P t134 = c[4] * t100;
        const P t135 = t133 + t134;
        const P t136 = c[3] * t95;
        const P t137 = c[4] * t101;
        const P t138 = t136 + t137;
        const P t139 = t128 + t138;
        const P t140 = t132 - t135;
        const P t141 = t128 - t138;
        const P t142 = t132 + t135;
        const P t143 = shuffled<1, 3>(t0, t4);
        const P t144 = shuffled<1, 3>(t3, t1);
        // real block of 3, multiplier 2
        const P t145 = t143 - t144;
        const P t146 = t144 + t143;
        const P t147 = shuffled<1, 3>(t8, t9);
        const P t148 = flipped<0, 1>(t147);
        const P t149 = t145 + t148;
        const P t150 = P(-c[5], c[5]) * t145;
        const P t151 = t147 + t150;
        const P t152 = shuffled<1, 3>(t17, t15);
        const P t153 = shuffled<1, 3>(t14, t18);
        // real block of 3, multiplier 2
        const P t154 = t152 - t153;
        const P t155 = t152 + t153;
        const P t156 = shuffled<1, 3>(t22, t23);
        const P t157 = flipped<0, 1>(t156);
        const P t158 = t154 + t157;
        const P t159 = P(-c[5], c[5]) * t154;
        const P t160 = t156 + t159;
        const P t161 = shuffled<1, 3>(t28, t29);
        const P t162 = shuffled<1, 3>(t31, t32);
        // real block of 3, multiplier 2
        const P t163 = t161 + t162;
        const P t164 = shuffled<0, 3>(t162, t161);
        const P t165 = shuffled<0, 3>(t161, t162);
        const P t166 = t164 - t165;
        const P t167 = shuffled<1, 3>(t36, t37);
        const P t168 = t163 + t167;
        const P t169 = flipped<1, 0>(t167);
        const P t170 = P(c[5], -c[5]) * t163;
        const P t171 = t169 + t170;
        const P t172 = shuffled<1, 3>(t42, t46);
        const P t173 = shuffled<1, 3>(t45, t43);
        // real block of 3, multiplier 2
        const P t174 = t172 - t173;
        const P t175 = t173 + t172;
        const P t176 = shuffled<1, 3>(t50, t51);
        const P t177 = flipped<0, 1>(t176);
        const P t178 = t174 + t177;
        const P t179 = P(-c[5], c[5]) * t174;
        const P t180 = t176 + t179;
        const P t181 = shuffled<1, 3>(t56, t57);
        const P t182 = shuffled<1, 3>(t59, t60);
        // real block of 3, multiplier 2
        const P t183 = t181 + t182;
        const P t184 = shuffled<0, 3>(t181, t182);
        const P t185 = shuffled<0, 3>(t182, t181);
        const P t186 = t184 - t185;
        const P t187 = shuffled<1, 3>(t64, t65);
        const P t188 = t183 + t187;
        const P t189 = P(-c[5], c[5]) * t183;
        const P t190 = flipped<0, 1>(t187);
        const P t191 = t189 + t190;
        const P t192 = flipped<0, 1>(t188);
        // real block of 5, multiplier 3
        const P t193 = t158 + t192;
        const P t194 = t158 - t192;
        const P t195 = flipped<1, 0>(t168);
        const P t196 = t178 + t195;
        const P t197 = t178 - t195;
        const P t198 = t193 + t196;
        const P t199 = t198 + t149;
        const P t200 = c[1] * t193;
        const P t201 = t149 - t200;
        const P t202 = c[2] * t196;
        const P t203 = t201 + t202;
        const P t204 = c[3] * t194;
        const P t205 = c[4] * t197;
        const P t206 = t204 + t205;
        const P t207 = c[2] * t193;
        const P t208 = c[1] * t196;
        const P t209 = t207 - t208;
        const P t210 = t209 + t149;
        const P t211 = c[3] * t197;
        const P t212 = c[4] * t194;
        const P t213 = t211 - t212;
        const P t214 = flipped<0, 1>(t160);
        // complex block of 5, multiplier 3
        const P t215 = t191 + t214;
        // real block of 3, multiplier 2
        const P t216 = P(-c[6], c[6]) * t155;
        // real block of 3, multiplier 2
        const P t217 = c[6] * t186;
        // complex block of 5, multiplier 3
        const P t218 = t216 + t217;
        const P t219 = flipped<1, 0>(t191);
        const P t220 = t160 + t219;
        const P t221 = flipped<1, 0>(t216);
        const P t222 = flipped<0, 1>(t217);
        const P t223 = t221 + t222;
        const P t224 = flipped<0, 1>(t180);
        const P t225 = t171 + t224;
        // real block of 3, multiplier 2
        const P t226 = c[6] * t166;
        // real block of 3, multiplier 2
        const P t227 = P(c[6], -c[6]) * t175;
        // complex block of 5, multiplier 3
        const P t228 = t226 + t227;
        const P t229 = flipped<1, 0>(t171);
        const P t230 = t180 + t229;
        const P t231 = flipped<0, 1>(t227);
        const P t232 = flipped<1, 0>(t226);
        const P t233 = t231 + t232;
        const P t234 = t215 + t225;
        const P t235 = t218 + t228;
        const P t236 = flipped<0, 1>(t151);
        const P t237 = t234 + t236;
        // real block of 3, multiplier 2
        const P t238 = P(c[6], -c[6]) * t146;
        // complex block of 5, multiplier 3
        const P t239 = t235 + t238;
        const P t240 = c[2] * t215;
        const P t241 = c[1] * t225;
        const P t242 = t240 - t241;
        const P t243 = t242 + t236;
        const P t244 = c[2] * t218;
        const P t245 = c[1] * t228;
        const P t246 = t244 - t245;
        const P t247 = t246 + t238;
        const P t248 = P(-c[3], c[3]) * t230;
        const P t249 = P(c[4], -c[4]) * t220;
        const P t250 = t248 + t249;
        const P t251 = c[4] * t223;
        const P t252 = c[3] * t233;
        const P t253 = t251 + t252;
        const P t254 = flipped<1, 0>(t253);
        const P t255 = t243 + t254;
        const P t256 = t247 - t250;
        const P t257 = t243 - t254;
        const P t258 = t247 + t250;
        const P t259 = P(-c[1], c[1]) * t215;
        const P t260 = t151 + t259;
        const P t261 = c[2] * t225;
        const P t262 = flipped<0, 1>(t260);
        const P t263 = t261 + t262;
        const P t264 = flipped<0, 1>(t238);
        const P t265 = P(-c[1], c[1]) * t218;
        const P t266 = t264 + t265;
        const P t267 = c[2] * t228;
        const P t268 = flipped<0, 1>(t266);
        const P t269 = t267 + t268;
        const P t270 = c[3] * t220;
        const P t271 = c[4] * t230;
        const P t272 = t270 + t271;
        const P t273 = P(-c[3], c[3]) * t223;
        const P t274 = P(c[4], -c[4]) * t233;
        const P t275 = t273 + t274;
        const P t276 = t263 + t275;
        const P t277 = flipped<1, 0>(t272);
        const P t278 = t269 + t277;
        const P t279 = t263 - t275;
        const P t280 = t269 - t277;
        const V x0r = io.re(0);
        const V x31r = io.re(31);
        const P t281 = joined(x0r, x31r);
        // spectrum block of 31, multiplier 2
        const P t282 = c[35] * t75;
        const P t283 = t281 - t282;
        const P t284 = c[7] * t279;
        const P t285 = c[8] * t280;
        const P t286 = t284 + t285;
        const P t287 = c[8] * t279;
        const P t288 = c[7] * t280;
        const P t289 = t287 - t288;
        const P t290 = c[9] * t124;
        const P t291 = c[10] * t123;
        const P t292 = t290 - t291;
        const P t293 = c[10] * t124;
        const P t294 = c[9] * t123;
        const P t295 = t293 + t294;
        const P t296 = c[11] * t213;
        const P t297 = c[12] * t210;
        const P t298 = t296 - t297;
        const P t299 = c[12] * t213;
        const P t300 = c[11] * t210;
        const P t301 = t299 + t300;
        const P t302 = c[13] * t139;
        const P t303 = c[14] * t140;
        const P t304 = t302 - t303;
        const P t305 = c[13] * t140;
        const P t306 = c[14] * t139;
        const P t307 = t305 + t306;
        const P t308 = c[15] * t237;
        const P t309 = c[16] * t239;
        const P t310 = t308 + t309;
        const P t311 = c[15] * t239;
        const P t312 = c[16] * t237;
        const P t313 = t311 - t312;
        const P t314 = c[17] * t79;
        const P t315 = c[18] * t82;
        const P t316 = t314 - t315;
        const P t317 = c[17] * t82;
        const P t318 = c[18] * t79;
        const P t319 = t317 + t318;
        const P t320 = c[19] * t255;
        const P t321 = c[20] * t256;
        const P t322 = t320 + t321;
        const P t323 = c[20] * t255;
        const P t324 = c[19] * t256;
        const P t325 = t323 - t324;
        const P t326 = c[21] * t121;
        const P t327 = c[22] * t122;
        const P t328 = t326 - t327;
        const P t329 = c[21] * t122;
        const P t330 = c[22] * t121;
        const P t331 = t329 + t330;
        const P t332 = c[23] * t203;
        const P t333 = c[24] * t206;
        const P t334 = t332 + t333;
        const P t335 = c[23] * t206;
        const P t336 = c[24] * t203;
        const P t337 = t335 - t336;
        const P t338 = c[25] * t104;
        const P t339 = c[26] * t106;
        const P t340 = t338 - t339;
        const P t341 = c[25] * t106;
        const P t342 = c[26] * t104;
        const P t343 = t341 + t342;
        const P t344 = c[27] * t276;
        const P t345 = c[28] * t278;
        const P t346 = t344 - t345;
        const P t347 = c[27] * t278;
        const P t348 = c[28] * t276;
        const P t349 = t347 + t348;
        const P t350 = c[29] * t86;
        const P t351 = c[30] * t89;
        const P t352 = t350 + t351;
        const P t353 = c[30] * t86;
        const P t354 = c[29] * t89;
        const P t355 = t353 - t354;
        const P t356 = c[31] * t257;
        const P t357 = c[32] * t258;
        const P t358 = t356 - t357;
        const P t359 = c[31] * t258;
        const P t360 = c[32] * t257;
        const P t361 = t359 + t360;
        const P t362 = c[33] * t141;
        const P t363 = c[34] * t142;
        const P t364 = t362 + t363;
        const P t365 = c[34] * t141;
        const P t366 = c[33] * t142;
        const P t367 = t365 - t366;
        const P t368 = c[36] * t199;
        // spectrum block of 2
        const P t369 = t283 - t368;
        const P t370 = t283 + t368;
        // complex block of 2
        const P t371 = t295 - t361;
        const P t372 = t292 + t358;
        const P t373 = t295 + t361;
        const P t374 = t292 - t358;
        // complex block of 2
        const P t375 = t307 + t349;
        const P t376 = t304 + t346;
        const P t377 = t307 - t349;
        const P t378 = t304 - t346;
        // complex block of 2
        const P t379 = t319 - t337;
        const P t380 = t316 - t334;
        const P t381 = t319 + t337;
        const P t382 = t316 + t334;
        // complex block of 2
        const P t383 = t331 + t325;
        const P t384 = t328 - t322;
        const P t385 = t325 - t331;
        const P t386 = t328 + t322;
        // complex block of 2
        const P t387 = t343 - t313;
        const P t388 = t340 - t310;
        const P t389 = t343 + t313;
        const P t390 = t340 + t310;
        // complex block of 2
        const P t391 = t355 - t301;
        const P t392 = t298 - t352;
        const P t393 = t355 + t301;
        const P t394 = t352 + t298;
        // complex block of 2
        const P t395 = t367 - t289;
        const P t396 = t364 - t286;
        const P t397 = t367 + t289;
        const P t398 = t364 + t286;
        // spectrum block of 3
        const P t399 = t388 + t369;
        const P t400 = c[5] * t388;
        const P t401 = t369 - t400;
        const P t402 = c[6] * t387;
        const P t403 = t401 - t402;
        const P t404 = t401 + t402;
        // complex block of 3
        const P t405 = t395 + t375;
        const P t406 = t396 + t376;
        const P t407 = t375 - t395;
        const P t408 = t396 - t376;
        const P t409 = t379 - t405;
        const P t410 = t406 + t380;
        const P t411 = c[5] * t405;
        const P t412 = t411 + t379;
        const P t413 = c[5] * t406;
        const P t414 = t380 - t413;
        const P t415 = c[6] * t408;
        const P t416 = t412 + t415;
        const P t417 = c[6] * t407;
        const P t418 = t414 - t417;
        const P t419 = t412 - t415;
        const P t420 = t414 + t417;
        // complex block of 3
        const P t421 = t383 + t371;
        const P t422 = t384 + t372;
        const P t423 = t383 - t371;
        const P t424 = t384 - t372;
        const P t425 = t421 + t391;
        const P t426 = t422 + t392;
        const P t427 = c[5] * t421;
        const P t428 = t391 - t427;
        const P t429 = c[5] * t422;
        const P t430 = t392 - t429;
        const P t431 = c[6] * t424;
        const P t432 = t428 + t431;
        const P t433 = c[6] * t423;
        const P t434 = t430 - t433;
        const P t435 = t428 - t431;
        const P t436 = t430 + t433;
        // spectrum block of 5
        const P t437 = t410 + t426;
        const P t438 = t437 + t399;
        const P t439 = c[2] * t410;
        const P t440 = c[1] * t426;
        const P t441 = t439 - t440;
        const P t442 = t441 + t399;
        const P t443 = c[4] * t409;
        const P t444 = c[3] * t425;
        const P t445 = t443 + t444;
        const P t446 = t442 - t445;
        const P t447 = t442 + t445;
        const P t448 = c[1] * t410;
        const P t449 = t399 - t448;
        const P t450 = c[2] * t426;
        const P t451 = t449 + t450;
        const P t452 = c[3] * t409;
        const P t453 = c[4] * t425;
        const P t454 = t452 - t453;
        const P t455 = t451 - t454;
        const P t456 = t451 + t454;
        // spectrum block of 5
        const P t457 = t418 + t434;
        const P t458 = t457 + t403;
        const P t459 = c[2] * t418;
        const P t460 = c[1] * t434;
        const P t461 = t459 - t460;
        const P t462 = t461 + t403;
        const P t463 = c[4] * t416;
        const P t464 = c[3] * t432;
        const P t465 = t463 + t464;
        const P t466 = t462 - t465;
        const P t467 = t462 + t465;
        const P t468 = c[1] * t418;
        const P t469 = t403 - t468;
        const P t470 = c[2] * t434;
        const P t471 = t469 + t470;
        const P t472 = c[3] * t416;
        const P t473 = c[4] * t432;
        const P t474 = t472 - t473;
        const P t475 = t471 - t474;
        const P t476 = t471 + t474;
        // spectrum block of 5
        const P t477 = t420 + t436;
        const P t478 = t477 + t404;
        const P t479 = c[2] * t420;
        const P t480 = c[1] * t436;
        const P t481 = t479 - t480;
        const P t482 = t481 + t404;
        const P t483 = c[4] * t419;
        const P t484 = c[3] * t435;
        const P t485 = t483 + t484;
        const P t486 = t482 - t485;
        const P t487 = t482 + t485;
        const P t488 = c[1] * t420;
        const P t489 = t404 - t488;
        const P t490 = c[2] * t436;
        const P t491 = t489 + t490;
        const P t492 = c[3] * t419;
        const P t493 = c[4] * t435;
        const P t494 = t492 - t493;
        const P t495 = t491 - t494;
        const P t496 = t491 + t494;
        // spectrum block of 3
        const P t497 = t390 + t370;
        const P t498 = c[5] * t390;
        const P t499 = t370 - t498;
        const P t500 = c[6] * t389;
        const P t501 = t499 - t500;
        const P t502 = t499 + t500;
        // complex block of 3
        const P t503 = t397 + t377;
        const P t504 = t398 + t378;
        const P t505 = t377 - t397;
        const P t506 = t398 - t378;
        const P t507 = t381 - t503;
        const P t508 = t504 + t382;
        const P t509 = c[5] * t503;
        const P t510 = t509 + t381;
        const P t511 = c[5] * t504;
        const P t512 = t382 - t511;
        const P t513 = c[6] * t506;
        const P t514 = t510 + t513;
        const P t515 = c[6] * t505;
        const P t516 = t512 - t515;
        const P t517 = t510 - t513;
        const P t518 = t512 + t515;
        // complex block of 3
        const P t519 = t373 - t385;
        const P t520 = t386 + t374;
        const P t521 = t385 + t373;
        const P t522 = t386 - t374;
        const P t523 = t519 + t393;
        const P t524 = t520 - t394;
        const P t525 = c[5] * t519;
        const P t526 = t393 - t525;
        const P t527 = c[5] * t520;
        const P t528 = t394 + t527;
        const P t529 = c[6] * t522;
        const P t530 = t526 + t529;
        const P t531 = c[6] * t521;
        const P t532 = t531 - t528;
        const P t533 = t526 - t529;
        const P t534 = t528 + t531;
        // spectrum block of 5
        const P t535 = t508 + t524;
        const P t536 = t535 + t497;
        const P t537 = c[2] * t508;
        const P t538 = c[1] * t524;
        const P t539 = t537 - t538;
        const P t540 = t539 + t497;
        const P t541 = c[4] * t507;
        const P t542 = c[3] * t523;
        const P t543 = t541 + t542;
        const P t544 = t540 - t543;
        const P t545 = t540 + t543;
        const P t546 = c[1] * t508;
        const P t547 = t497 - t546;
        const P t548 = c[2] * t524;
        const P t549 = t547 + t548;
        const P t550 = c[3] * t507;
        const P t551 = c[4] * t523;
        const P t552 = t550 - t551;
        const P t553 = t549 - t552;
        const P t554 = t549 + t552;
        // spectrum block of 5
        const P t555 = t516 + t532;
        const P t556 = t555 + t501;
        const P t557 = c[2] * t516;
        const P t558 = c[1] * t532;
        const P t559 = t557 - t558;
        const P t560 = t559 + t501;
        const P t561 = c[4] * t514;
        const P t562 = c[3] * t530;
        const P t563 = t561 + t562;
        const P t564 = t560 - t563;
        const P t565 = t560 + t563;
        const P t566 = c[1] * t516;
        const P t567 = t501 - t566;
        const P t568 = c[2] * t532;
        const P t569 = t567 + t568;
        const P t570 = c[3] * t514;
        const P t571 = c[4] * t530;
        const P t572 = t570 - t571;
        const P t573 = t569 - t572;
        const P t574 = t569 + t572;
        // spectrum block of 5
        const P t575 = t518 - t534;
        const P t576 = t575 + t502;
        const P t577 = c[2] * t518;
        const P t578 = c[1] * t534;
        const P t579 = t577 + t578;
        const P t580 = t579 + t502;
        const P t581 = c[4] * t517;
        const P t582 = c[3] * t533;
        const P t583 = t581 + t582;
        const P t584 = t580 - t583;
        const P t585 = t580 + t583;
        const P t586 = c[1] * t518;
        const P t587 = t502 - t586;
        const P t588 = c[2] * t534;
        const P t589 = t587 - t588;
        const P t590 = c[3] * t517;
        const P t591 = c[4] * t533;
        const P t592 = t590 - t591;
        const P t593 = t589 - t592;
        const P t594 = t589 + t592;
        // spectrum block of 31, multiplier 2
        const P t595 = t281 + t75;
        const P t596 = shuffled<0, 2>(t595, t438);
        const P t597 = shuffled<1, 3>(t595, t438);
        // spectrum block of 2
        const P t598 = t596 + t597;
        io.out(0, 2, t598);
        const P t599 = t596 - t597;
        io.out(31, 33, t599);
        const P t600 = shuffled<0, 2>(t446, t585);
        const P t601 = shuffled<1, 3>(t446, t585);
        // spectrum block of 2
        const P t602 = t600 + t601;
        io.out(4, 6, t602);
        const P t603 = t600 - t601;
        io.out(35, 37, t603);
        const P t604 = shuffled<0, 2>(t455, t458);
        const P t605 = shuffled<1, 3>(t455, t458);
        // spectrum block of 2
        const P t606 = t604 + t605;
        io.out(8, 10, t606);
        const P t607 = t604 - t605;
        io.out(39, 41, t607);
        const P t608 = shuffled<0, 2>(t576, t495);
        const P t609 = shuffled<1, 3>(t576, t495);
        // spectrum block of 2
        const P t610 = t608 + t609;
        io.out(12, 14, t610);
        const P t611 = t608 - t609;
        io.out(43, 45, t611);
        const P t612 = shuffled<0, 2>(t456, t476);
        const P t613 = shuffled<1, 3>(t456, t476);
        // spectrum block of 2
        const P t614 = t612 + t613;
        io.out(16, 18, t614);
        const P t615 = t612 - t613;
        io.out(47, 49, t615);
        const P t616 = shuffled<0, 2>(t466, t573);
        const P t617 = shuffled<1, 3>(t466, t573);
        // spectrum block of 2
        const P t618 = t616 + t617;
        io.out(20, 22, t618);
        const P t619 = t616 - t617;
        io.out(51, 53, t619);
        const P t620 = shuffled<0, 2>(t584, t565);
        const P t621 = shuffled<1, 3>(t584, t565);
        // spectrum block of 2
        const P t622 = t620 + t621;
        io.out(24, 26, t622);
        const P t623 = t620 - t621;
        io.out(55, 57, t623);
        const P t624 = shuffled<0, 2>(t496, t545);
        const P t625 = shuffled<1, 3>(t496, t545);
        // spectrum block of 2
        const P t626 = t624 + t625;
        io.out(28, 30, t626);
        const P t627 = t624 - t625;
        io.out(59, 61, t627);
        const P t628 = shuffled<0, 2>(t447, t594);
        const P t629 = shuffled<1, 3>(t447, t594);
        // spectrum block of 2
        const P t630 = t628 + t629;
        io.out(32, 34, t630);
        const P t631 = t628 - t629;
        io.out(1, 3, t631);
        const P t632 = shuffled<0, 2>(t467, t486);
        const P t633 = shuffled<1, 3>(t467, t486);
        // spectrum block of 2
        const P t634 = t632 + t633;
        io.out(36, 38, t634);
        const P t635 = t632 - t633;
        io.out(5, 7, t635);
        const P t636 = shuffled<0, 2>(t475, t564);
        const P t637 = shuffled<1, 3>(t475, t564);
        // spectrum block of 2
        const P t638 = t636 + t637;
        io.out(40, 42, t638);
        const P t639 = t636 - t637;
        io.out(9, 11, t639);
        const P t640 = shuffled<0, 2>(t574, t554);
        const P t641 = shuffled<1, 3>(t574, t554);
        // spectrum block of 2
        const P t642 = t640 + t641;
        io.out(44, 46, t642);
        const P t643 = t640 - t641;
        io.out(13, 15, t643);
        const P t644 = shuffled<0, 2>(t593, t478);
        const P t645 = shuffled<1, 3>(t593, t478);
        // spectrum block of 2
        const P t646 = t644 + t645;
        io.out(48, 50, t646);
        const P t647 = t644 - t645;
        io.out(17, 19, t647);
        const P t648 = shuffled<0, 2>(t556, t553);
        const P t649 = shuffled<1, 3>(t556, t553);
        // spectrum block of 2
        const P t650 = t648 + t649;
        io.out(52, 54, t650);
        const P t651 = t648 - t649;
        io.out(21, 23, t651);
        const P t652 = shuffled<0, 2>(t487, t544);
        const P t653 = shuffled<1, 3>(t487, t544);
        // spectrum block of 2
        const P t654 = t652 + t653;
        io.out(56, 58, t654);
        const P t655 = t652 - t653;
        io.out(25, 27, t655);
        const V t656 = part<0>(t536);
        const V t657 = part<1>(t536);
        // spectrum block of 2
        const V t658 = t656 + t657;
        io.out(60, t658);
        const V t659 = t656 - t657;
        io.out(29, t659);
    }
};

}  // namespace zulg
