// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 62.
// Hartley transform of 62 points, form I; two lanes to a register.
// 213 sums, 165 differences, 194 products of registers, which do the 1204 steps of the graph, those with
// `scale` included; 65 shuffles, 21 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<62> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.3386491040641593,  // c[6]: -Q[1] of 31
        0.15196895108646355,  // c[7]: P[1] of 31
        0.21884316352804659,  // c[8]: Q[2] of 31
        0.29980901846811486,  // c[9]: -P[2] of 31
        0.37067181273221134,  // c[10]: P[3] of 31
        0.019498333867134416,  // c[11]: -Q[3] of 31
        0.3665614991633792,  // c[12]: P[4] of 31
        0.05839901633481273,  // c[13]: Q[4] of 31
        0.2580069240952765,  // c[14]: -Q[5] of 31
        0.26685240283098827,  // c[15]: -P[5] of 31
        0.2970284107916672,  // c[16]: P[6] of 31
        0.2226025627892778,  // c[17]: Q[6] of 31
        0.28075102554360776,  // c[18]: -Q[7] of 31
        0.24280988331200667,  // c[19]: P[7] of 31
        0.35531525594489755,  // c[20]: P[8] of 31
        0.1073724670043011,  // c[21]: -Q[8] of 31
        0.008505491359144196,  // c[22]: -Q[9] of 31
        0.37108682864596165,  // c[23]: -P[9] of 31
        0.3417205692768941,  // c[24]: P[10] of 31
        0.1449304326594425,  // c[25]: Q[10] of 31
        0.36539376648991023,  // c[26]: Q[11] of 31
        0.06530829340975558,  // c[27]: -P[11] of 31
        0.35709323166839874,  // c[28]: -P[12] of 31
        0.10130252550848418,  // c[29]: Q[12] of 31
        0.3312534027537607,  // c[30]: Q[13] of 31
        0.1674782402040115,  // c[31]: P[13] of 31
        0.2485676599132395,  // c[32]: P[14] of 31
        0.27566627690567064,  // c[33]: Q[14] of 31
        0.03333333333333333,  // c[34]: 1/30
        0.1855921454276674,  // c[35]: -beta of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x61_60 = io.in(61, 60);
        // input stage
        const P t0 = x1_2 + x61_60;
        const P t1 = x1_2 - x61_60;
        const P x3_4 = io.in(3, 4);
        const P x59_58 = io.in(59, 58);
        const P t2 = x3_4 + x59_58;
        const P t3 = x3_4 - x59_58;
        const P x5_6 = io.in(5, 6);
        const P x57_56 = io.in(57, 56);
        const P t4 = x5_6 + x57_56;
        const P t5 = x5_6 - x57_56;
        const P x7_8 = io.in(7, 8);
        const P x55_54 = io.in(55, 54);
        const P t6 = x7_8 + x55_54;
        const P t7 = x7_8 - x55_54;
        const P x9_10 = io.in(9, 10);
        const P x53_52 = io.in(53, 52);
        const P t8 = x9_10 + x53_52;
        const P t9 = x9_10 - x53_52;
        const P x11_12 = io.in(11, 12);
        const P x51_50 = io.in(51, 50);
        const P t10 = x11_12 + x51_50;
        const P t11 = x11_12 - x51_50;
        const P x13_14 = io.in(13, 14);
        const P x49_48 = io.in(49, 48);
        const P t12 = x13_14 + x49_48;
        const P t13 = x13_14 - x49_48;
        const P x15_16 = io.in(15, 16);
        const P x47_46 = io.in(47, 46);
        const P t14 = x15_16 + x47_46;
        const P t15 = x15_16 - x47_46;
        const P x17_18 = io.in(17, 18);
        const P x45_44 = io.in(45, 44);
        const P t16 = x17_18 + x45_44;
        const P t17 = x17_18 - x45_44;
        const P x19_20 = io.in(19, 20);
        const P x43_42 = io.in(43, 42);
        const P t18 = x19_20 + x43_42;
        const P t19 = x19_20 - x43_42;
        const P x21_22 = io.in(21, 22);
        const P x41_40 = io.in(41, 40);
        const P t20 = x21_22 + x41_40;
        const P t21 = x21_22 - x41_40;
        const P x23_24 = io.in(23, 24);
        const P x39_38 = io.in(39, 38);
        const P t22 = x23_24 + x39_38;
        const P t23 = x23_24 - x39_38;
        const P x25_26 = io.in(25, 26);
        const P x37_36 = io.in(37, 36);
        const P t24 = x25_26 + x37_36;
        const P t25 = x25_26 - x37_36;
        const P x27_28 = io.in(27, 28);
        const P x35_34 = io.in(35, 34);
        const P t26 = x27_28 + x35_34;
        const P t27 = x27_28 - x35_34;
        const P x29_30 = io.in(29, 30);
        const P x33_32 = io.in(33, 32);
        const P t28 = x29_30 + x33_32;
        const P t29 = x29_30 - x33_32;
        const P t30 = shuffled<1, 2>(t8, t20);
        const P t31 = shuffled<1, 2>(t10, t18);
        // real block of 3, multiplier 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P t34 = shuffled<1, 2>(t0, t28);
        const P t35 = t32 + t34;
        const P t36 = c[4] * t32;
        const P t37 = t34 - t36;
        const P t38 = shuffled<1, 2>(t20, t8);
        const P t39 = shuffled<1, 2>(t12, t16);
        // real block of 3, multiplier 2
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = shuffled<1, 2>(t6, t22);
        const P t43 = t40 + t42;
        const P t44 = c[4] * t40;
        const P t45 = t42 - t44;
        const P t46 = shuffled<1, 2>(t24, t4);
        const P t47 = shuffled<1, 2>(t4, t24);
        // real block of 3, multiplier 2
        const P t48 = t46 + t47;
        const P t49 = t46 - t47;
        const P t50 = shuffled<1, 2>(t28, t0);
        const P t51 = t48 + t50;
        const P t52 = c[4] * t48;
        const P t53 = t50 - t52;
        const P t54 = shuffled<1, 2>(t18, t10);
        const P t55 = shuffled<1, 2>(t22, t6);
        // real block of 3, multiplier 2
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        const P t58 = shuffled<1, 2>(t2, t26);
        const P t59 = t56 + t58;
        const P t60 = c[4] * t56;
        const P t61 = t58 - t60;
        const P t62 = shuffled<1, 2>(t16, t12);
        const P t63 = shuffled<1, 2>(t26, t2);
        // real block of 3, multiplier 2
        const P t64 = t62 + t63;
        const P t65 = t62 - t63;
        const P t66 = shuffled<1, 0>(t14);
        const P t67 = t64 + t66;
        const P t68 = c[4] * t64;
        const P t69 = t66 - t68;
        // real block of 5, multiplier 3
        const P t70 = t43 + t67;
        const P t71 = t43 - t67;
        const P t72 = t59 + t51;
        const P t73 = t59 - t51;
        const P t74 = t70 + t72;
        const P t75 = t74 + t35;
        const P t76 = c[0] * t70;
        const P t77 = t35 - t76;
        const P t78 = c[1] * t72;
        const P t79 = t77 + t78;
        const P t80 = c[2] * t71;
        const P t81 = c[3] * t73;
        const P t82 = t80 + t81;
        const P t83 = c[1] * t70;
        const P t84 = c[0] * t72;
        const P t85 = t83 - t84;
        const P t86 = t85 + t35;
        const P t87 = c[2] * t73;
        const P t88 = c[3] * t71;
        const P t89 = t87 - t88;
        // complex block of 5, multiplier 3
        const P t90 = t45 + t69;
        // real block of 3, multiplier 2
        const P t91 = c[5] * t41;
        // real block of 3, multiplier 2
        const P t92 = c[5] * t65;
        // complex block of 5, multiplier 3
        const P t93 = t91 + t92;
        const P t94 = t45 - t69;
        const P t95 = t91 - t92;
        const P t96 = t61 + t53;
        // real block of 3, multiplier 2
        const P t97 = c[5] * t57;
        // real block of 3, multiplier 2
        const P t98 = c[5] * t49;
        // complex block of 5, multiplier 3
        const P t99 = t97 + t98;
        const P t100 = t61 - t53;
        const P t101 = t97 - t98;
        const P t102 = t90 + t96;
        const P t103 = t93 + t99;
        const P t104 = t102 + t37;
        // real block of 3, multiplier 2
        const P t105 = c[5] * t33;
        // complex block of 5, multiplier 3
        const P t106 = t103 + t105;
        const P t107 = c[1] * t90;
        const P t108 = c[0] * t96;
        const P t109 = t107 - t108;
        const P t110 = t109 + t37;
        const P t111 = c[1] * t93;
        const P t112 = c[0] * t99;
        const P t113 = t111 - t112;
        const P t114 = t113 + t105;
        const P t115 = c[3] * t94;
        const P t116 = c[2] * t100;
        const P t117 = t115 - t116;
        const P t118 = c[3] * t95;
        const P t119 = c[2] * t101;
        const P t120 = t118 - t119;
        const P t121 = t110 + t120;
        const P t122 = t114 - t117;
        const P t123 = t110 - t120;
        const P t124 = t114 + t117;
        const P t125 = c[0] * t90;
        const P t126 = t37 - t125;
        const P t127 = c[1] * t96;
        const P t128 = t126 + t127;
        const P t129 = c[0] * t93;
        const P t130 = t105 - t129;
        const P t131 = c[1] * t99;
        const P t132 = t130 + t131;
        const P t133 = c[2] * t94;
        const P t134 = c[3] * t100;
        const P t135 = t133 + t134;
        const P t136 = c[2] * t95;
        const P t137 = c[3] * t101;
        const P t138 = t136 + t137;
        const P t139 = t128 + t138;
        const P t140 = t132 - t135;
        const P t141 = t128 - t138;
        const P t142 = t132 + t135;
        const P t143 = shuffled<1, 2>(t9, t19);
        const P t144 = shuffled<1, 2>(t11, t21);
        // real block of 3, multiplier 2
        const P t145 = t143 - t144;
        const P t146 = t144 + t143;
        const P t147 = shuffled<1, 2>(t1, t29);
        const P t148 = flipped<0, 1>(t147);
        const P t149 = t145 + t148;
        const P t150 = P(-c[4], c[4]) * t145;
        const P t151 = t147 + t150;
        const P t152 = shuffled<1, 2>(t13, t9);
        const P t153 = shuffled<1, 2>(t21, t17);
        // real block of 3, multiplier 2
        const P t154 = t152 - t153;
        const P t155 = t152 + t153;
        const P t156 = shuffled<1, 2>(t7, t23);
        const P t157 = flipped<0, 1>(t156);
        const P t158 = t154 + t157;
        const P t159 = P(-c[4], c[4]) * t154;
        const P t160 = t156 + t159;
        const P t161 = shuffled<1, 2>(t25, t5);
        const P t162 = shuffled<1, 2>(t5, t25);
        // real block of 3, multiplier 2
        const P t163 = t161 + t162;
        const P t164 = shuffled<0, 3>(t162, t161);
        const P t165 = shuffled<0, 3>(t161, t162);
        const P t166 = t164 - t165;
        const P t167 = shuffled<1, 2>(t29, t1);
        const P t168 = t163 + t167;
        const P t169 = flipped<1, 0>(t167);
        const P t170 = P(c[4], -c[4]) * t163;
        const P t171 = t169 + t170;
        const P t172 = shuffled<1, 2>(t19, t7);
        const P t173 = shuffled<1, 2>(t23, t11);
        // real block of 3, multiplier 2
        const P t174 = t172 - t173;
        const P t175 = t173 + t172;
        const P t176 = shuffled<1, 2>(t3, t27);
        const P t177 = flipped<0, 1>(t176);
        const P t178 = t174 + t177;
        const P t179 = P(-c[4], c[4]) * t174;
        const P t180 = t176 + t179;
        const P t181 = shuffled<1, 2>(t17, t13);
        const P t182 = shuffled<1, 2>(t27, t3);
        // real block of 3, multiplier 2
        const P t183 = t181 + t182;
        const P t184 = shuffled<0, 3>(t181, t182);
        const P t185 = shuffled<0, 3>(t182, t181);
        const P t186 = t184 - t185;
        const P t187 = shuffled<1, 0>(t15);
        const P t188 = t183 + t187;
        const P t189 = P(-c[4], c[4]) * t183;
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
        const P t200 = c[0] * t193;
        const P t201 = t149 - t200;
        const P t202 = c[1] * t196;
        const P t203 = t201 + t202;
        const P t204 = c[2] * t194;
        const P t205 = c[3] * t197;
        const P t206 = t204 + t205;
        const P t207 = c[1] * t193;
        const P t208 = c[0] * t196;
        const P t209 = t207 - t208;
        const P t210 = t209 + t149;
        const P t211 = c[2] * t197;
        const P t212 = c[3] * t194;
        const P t213 = t211 - t212;
        const P t214 = flipped<0, 1>(t160);
        // complex block of 5, multiplier 3
        const P t215 = t191 + t214;
        // real block of 3, multiplier 2
        const P t216 = P(-c[5], c[5]) * t155;
        // real block of 3, multiplier 2
        const P t217 = c[5] * t186;
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
        const P t226 = c[5] * t166;
        // real block of 3, multiplier 2
        const P t227 = P(c[5], -c[5]) * t175;
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
        const P t238 = P(c[5], -c[5]) * t146;
        // complex block of 5, multiplier 3
        const P t239 = t235 + t238;
        const P t240 = c[1] * t215;
        const P t241 = c[0] * t225;
        const P t242 = t240 - t241;
        const P t243 = t242 + t236;
        const P t244 = c[1] * t218;
        const P t245 = c[0] * t228;
        const P t246 = t244 - t245;
        const P t247 = t246 + t238;
        const P t248 = P(-c[2], c[2]) * t230;
        const P t249 = P(c[3], -c[3]) * t220;
        const P t250 = t248 + t249;
        const P t251 = c[3] * t223;
        const P t252 = c[2] * t233;
        const P t253 = t251 + t252;
        const P t254 = flipped<1, 0>(t253);
        const P t255 = t243 + t254;
        const P t256 = t247 - t250;
        const P t257 = t243 - t254;
        const P t258 = t247 + t250;
        const P t259 = P(-c[0], c[0]) * t215;
        const P t260 = t151 + t259;
        const P t261 = c[1] * t225;
        const P t262 = flipped<0, 1>(t260);
        const P t263 = t261 + t262;
        const P t264 = flipped<0, 1>(t238);
        const P t265 = P(-c[0], c[0]) * t218;
        const P t266 = t264 + t265;
        const P t267 = c[1] * t228;
        const P t268 = flipped<0, 1>(t266);
        const P t269 = t267 + t268;
        const P t270 = c[2] * t220;
        const P t271 = c[3] * t230;
        const P t272 = t270 + t271;
        const P t273 = P(-c[2], c[2]) * t223;
        const P t274 = P(c[3], -c[3]) * t233;
        const P t275 = t273 + t274;
        const P t276 = t263 + t275;
        const P t277 = flipped<1, 0>(t272);
        const P t278 = t269 + t277;
        const P t279 = t263 - t275;
        const P t280 = t269 - t277;
        const P x0_31 = io.in(0, 31);
        // spectrum block of 31, multiplier 2
        const P t281 = c[34] * t75;
        const P t282 = x0_31 - t281;
        const P t283 = c[6] * t279;
        const P t284 = c[7] * t280;
        const P t285 = t283 + t284;
        const P t286 = c[7] * t279;
        const P t287 = c[6] * t280;
        const P t288 = t286 - t287;
        const P t289 = c[8] * t124;
        const P t290 = c[9] * t123;
        const P t291 = t289 - t290;
        const P t292 = c[9] * t124;
        const P t293 = c[8] * t123;
        const P t294 = t292 + t293;
        const P t295 = c[10] * t213;
        const P t296 = c[11] * t210;
        const P t297 = t295 - t296;
        const P t298 = c[11] * t213;
        const P t299 = c[10] * t210;
        const P t300 = t298 + t299;
        const P t301 = c[12] * t139;
        const P t302 = c[13] * t140;
        const P t303 = t301 - t302;
        const P t304 = c[12] * t140;
        const P t305 = c[13] * t139;
        const P t306 = t304 + t305;
        const P t307 = c[14] * t237;
        const P t308 = c[15] * t239;
        const P t309 = t307 + t308;
        const P t310 = c[14] * t239;
        const P t311 = c[15] * t237;
        const P t312 = t310 - t311;
        const P t313 = c[16] * t79;
        const P t314 = c[17] * t82;
        const P t315 = t313 - t314;
        const P t316 = c[16] * t82;
        const P t317 = c[17] * t79;
        const P t318 = t316 + t317;
        const P t319 = c[18] * t255;
        const P t320 = c[19] * t256;
        const P t321 = t319 + t320;
        const P t322 = c[19] * t255;
        const P t323 = c[18] * t256;
        const P t324 = t322 - t323;
        const P t325 = c[20] * t121;
        const P t326 = c[21] * t122;
        const P t327 = t325 - t326;
        const P t328 = c[20] * t122;
        const P t329 = c[21] * t121;
        const P t330 = t328 + t329;
        const P t331 = c[22] * t203;
        const P t332 = c[23] * t206;
        const P t333 = t331 + t332;
        const P t334 = c[22] * t206;
        const P t335 = c[23] * t203;
        const P t336 = t334 - t335;
        const P t337 = c[24] * t104;
        const P t338 = c[25] * t106;
        const P t339 = t337 - t338;
        const P t340 = c[24] * t106;
        const P t341 = c[25] * t104;
        const P t342 = t340 + t341;
        const P t343 = c[26] * t276;
        const P t344 = c[27] * t278;
        const P t345 = t343 - t344;
        const P t346 = c[26] * t278;
        const P t347 = c[27] * t276;
        const P t348 = t346 + t347;
        const P t349 = c[28] * t86;
        const P t350 = c[29] * t89;
        const P t351 = t349 + t350;
        const P t352 = c[29] * t86;
        const P t353 = c[28] * t89;
        const P t354 = t352 - t353;
        const P t355 = c[30] * t257;
        const P t356 = c[31] * t258;
        const P t357 = t355 - t356;
        const P t358 = c[30] * t258;
        const P t359 = c[31] * t257;
        const P t360 = t358 + t359;
        const P t361 = c[32] * t141;
        const P t362 = c[33] * t142;
        const P t363 = t361 + t362;
        const P t364 = c[33] * t141;
        const P t365 = c[32] * t142;
        const P t366 = t364 - t365;
        const P t367 = c[35] * t199;
        // spectrum block of 2
        const P t368 = t282 - t367;
        const P t369 = t282 + t367;
        // complex block of 2
        const P t370 = t294 - t360;
        const P t371 = t291 + t357;
        const P t372 = t294 + t360;
        const P t373 = t291 - t357;
        // complex block of 2
        const P t374 = t306 + t348;
        const P t375 = t303 + t345;
        const P t376 = t306 - t348;
        const P t377 = t303 - t345;
        // complex block of 2
        const P t378 = t318 - t336;
        const P t379 = t315 - t333;
        const P t380 = t318 + t336;
        const P t381 = t315 + t333;
        // complex block of 2
        const P t382 = t330 + t324;
        const P t383 = t327 - t321;
        const P t384 = t324 - t330;
        const P t385 = t327 + t321;
        // complex block of 2
        const P t386 = t342 - t312;
        const P t387 = t339 - t309;
        const P t388 = t342 + t312;
        const P t389 = t339 + t309;
        // complex block of 2
        const P t390 = t354 - t300;
        const P t391 = t297 - t351;
        const P t392 = t354 + t300;
        const P t393 = t351 + t297;
        // complex block of 2
        const P t394 = t366 - t288;
        const P t395 = t363 - t285;
        const P t396 = t366 + t288;
        const P t397 = t363 + t285;
        // spectrum block of 3
        const P t398 = t387 + t368;
        const P t399 = c[4] * t387;
        const P t400 = t368 - t399;
        const P t401 = c[5] * t386;
        const P t402 = t400 - t401;
        const P t403 = t400 + t401;
        // complex block of 3
        const P t404 = t394 + t374;
        const P t405 = t395 + t375;
        const P t406 = t374 - t394;
        const P t407 = t395 - t375;
        const P t408 = t378 - t404;
        const P t409 = t405 + t379;
        const P t410 = c[4] * t404;
        const P t411 = t410 + t378;
        const P t412 = c[4] * t405;
        const P t413 = t379 - t412;
        const P t414 = c[5] * t407;
        const P t415 = t411 + t414;
        const P t416 = c[5] * t406;
        const P t417 = t413 - t416;
        const P t418 = t411 - t414;
        const P t419 = t413 + t416;
        // complex block of 3
        const P t420 = t382 + t370;
        const P t421 = t383 + t371;
        const P t422 = t382 - t370;
        const P t423 = t383 - t371;
        const P t424 = t420 + t390;
        const P t425 = t421 + t391;
        const P t426 = c[4] * t420;
        const P t427 = t390 - t426;
        const P t428 = c[4] * t421;
        const P t429 = t391 - t428;
        const P t430 = c[5] * t423;
        const P t431 = t427 + t430;
        const P t432 = c[5] * t422;
        const P t433 = t429 - t432;
        const P t434 = t427 - t430;
        const P t435 = t429 + t432;
        // spectrum block of 5
        const P t436 = t409 + t425;
        const P t437 = t436 + t398;
        const P t438 = c[1] * t409;
        const P t439 = c[0] * t425;
        const P t440 = t438 - t439;
        const P t441 = t440 + t398;
        const P t442 = c[3] * t408;
        const P t443 = c[2] * t424;
        const P t444 = t442 + t443;
        const P t445 = t441 - t444;
        const P t446 = t441 + t444;
        const P t447 = c[0] * t409;
        const P t448 = t398 - t447;
        const P t449 = c[1] * t425;
        const P t450 = t448 + t449;
        const P t451 = c[2] * t408;
        const P t452 = c[3] * t424;
        const P t453 = t451 - t452;
        const P t454 = t450 - t453;
        const P t455 = t450 + t453;
        // spectrum block of 5
        const P t456 = t417 + t433;
        const P t457 = t456 + t402;
        const P t458 = c[1] * t417;
        const P t459 = c[0] * t433;
        const P t460 = t458 - t459;
        const P t461 = t460 + t402;
        const P t462 = c[3] * t415;
        const P t463 = c[2] * t431;
        const P t464 = t462 + t463;
        const P t465 = t461 - t464;
        const P t466 = t461 + t464;
        const P t467 = c[0] * t417;
        const P t468 = t402 - t467;
        const P t469 = c[1] * t433;
        const P t470 = t468 + t469;
        const P t471 = c[2] * t415;
        const P t472 = c[3] * t431;
        const P t473 = t471 - t472;
        const P t474 = t470 - t473;
        const P t475 = t470 + t473;
        // spectrum block of 5
        const P t476 = t419 + t435;
        const P t477 = t476 + t403;
        const P t478 = c[1] * t419;
        const P t479 = c[0] * t435;
        const P t480 = t478 - t479;
        const P t481 = t480 + t403;
        const P t482 = c[3] * t418;
        const P t483 = c[2] * t434;
        const P t484 = t482 + t483;
        const P t485 = t481 - t484;
        const P t486 = t481 + t484;
        const P t487 = c[0] * t419;
        const P t488 = t403 - t487;
        const P t489 = c[1] * t435;
        const P t490 = t488 + t489;
        const P t491 = c[2] * t418;
        const P t492 = c[3] * t434;
        const P t493 = t491 - t492;
        const P t494 = t490 - t493;
        const P t495 = t490 + t493;
        // spectrum block of 3
        const P t496 = t389 + t369;
        const P t497 = c[4] * t389;
        const P t498 = t369 - t497;
        const P t499 = c[5] * t388;
        const P t500 = t498 - t499;
        const P t501 = t498 + t499;
        // complex block of 3
        const P t502 = t396 + t376;
        const P t503 = t397 + t377;
        const P t504 = t376 - t396;
        const P t505 = t397 - t377;
        const P t506 = t380 - t502;
        const P t507 = t503 + t381;
        const P t508 = c[4] * t502;
        const P t509 = t508 + t380;
        const P t510 = c[4] * t503;
        const P t511 = t381 - t510;
        const P t512 = c[5] * t505;
        const P t513 = t509 + t512;
        const P t514 = c[5] * t504;
        const P t515 = t511 - t514;
        const P t516 = t509 - t512;
        const P t517 = t511 + t514;
        // complex block of 3
        const P t518 = t372 - t384;
        const P t519 = t385 + t373;
        const P t520 = t384 + t372;
        const P t521 = t385 - t373;
        const P t522 = t518 + t392;
        const P t523 = t519 - t393;
        const P t524 = c[4] * t518;
        const P t525 = t392 - t524;
        const P t526 = c[4] * t519;
        const P t527 = t393 + t526;
        const P t528 = c[5] * t521;
        const P t529 = t525 + t528;
        const P t530 = c[5] * t520;
        const P t531 = t530 - t527;
        const P t532 = t525 - t528;
        const P t533 = t527 + t530;
        // spectrum block of 5
        const P t534 = t507 + t523;
        const P t535 = t534 + t496;
        const P t536 = c[1] * t507;
        const P t537 = c[0] * t523;
        const P t538 = t536 - t537;
        const P t539 = t538 + t496;
        const P t540 = c[3] * t506;
        const P t541 = c[2] * t522;
        const P t542 = t540 + t541;
        const P t543 = t539 - t542;
        const P t544 = t539 + t542;
        const P t545 = c[0] * t507;
        const P t546 = t496 - t545;
        const P t547 = c[1] * t523;
        const P t548 = t546 + t547;
        const P t549 = c[2] * t506;
        const P t550 = c[3] * t522;
        const P t551 = t549 - t550;
        const P t552 = t548 - t551;
        const P t553 = t548 + t551;
        // spectrum block of 5
        const P t554 = t515 + t531;
        const P t555 = t554 + t500;
        const P t556 = c[1] * t515;
        const P t557 = c[0] * t531;
        const P t558 = t556 - t557;
        const P t559 = t558 + t500;
        const P t560 = c[3] * t513;
        const P t561 = c[2] * t529;
        const P t562 = t560 + t561;
        const P t563 = t559 - t562;
        const P t564 = t559 + t562;
        const P t565 = c[0] * t515;
        const P t566 = t500 - t565;
        const P t567 = c[1] * t531;
        const P t568 = t566 + t567;
        const P t569 = c[2] * t513;
        const P t570 = c[3] * t529;
        const P t571 = t569 - t570;
        const P t572 = t568 - t571;
        const P t573 = t568 + t571;
        // spectrum block of 5
        const P t574 = t517 - t533;
        const P t575 = t574 + t501;
        const P t576 = c[1] * t517;
        const P t577 = c[0] * t533;
        const P t578 = t576 + t577;
        const P t579 = t578 + t501;
        const P t580 = c[3] * t516;
        const P t581 = c[2] * t532;
        const P t582 = t580 + t581;
        const P t583 = t579 - t582;
        const P t584 = t579 + t582;
        const P t585 = c[0] * t517;
        const P t586 = t501 - t585;
        const P t587 = c[1] * t533;
        const P t588 = t586 - t587;
        const P t589 = c[2] * t516;
        const P t590 = c[3] * t532;
        const P t591 = t589 - t590;
        const P t592 = t588 - t591;
        const P t593 = t588 + t591;
        // spectrum block of 31, multiplier 2
        const P t594 = x0_31 + t75;
        const P t595 = shuffled<0, 2>(t594, t437);
        const P t596 = shuffled<1, 3>(t594, t437);
        // spectrum block of 2
        const P t597 = t595 + t596;
        io.out(0, 60, t597);
        const P t598 = t595 - t596;
        io.out(31, 29, t598);
        const P t599 = shuffled<0, 2>(t445, t584);
        const P t600 = shuffled<1, 3>(t445, t584);
        // spectrum block of 2
        const P t601 = t599 + t600;
        io.out(58, 56, t601);
        const P t602 = t599 - t600;
        io.out(27, 25, t602);
        const P t603 = shuffled<0, 2>(t454, t457);
        const P t604 = shuffled<1, 3>(t454, t457);
        // spectrum block of 2
        const P t605 = t603 + t604;
        io.out(54, 52, t605);
        const P t606 = t603 - t604;
        io.out(23, 21, t606);
        const P t607 = shuffled<0, 2>(t575, t494);
        const P t608 = shuffled<1, 3>(t575, t494);
        // spectrum block of 2
        const P t609 = t607 + t608;
        io.out(50, 48, t609);
        const P t610 = t607 - t608;
        io.out(19, 17, t610);
        const P t611 = shuffled<0, 2>(t455, t475);
        const P t612 = shuffled<1, 3>(t455, t475);
        // spectrum block of 2
        const P t613 = t611 + t612;
        io.out(46, 44, t613);
        const P t614 = t611 - t612;
        io.out(15, 13, t614);
        const P t615 = shuffled<0, 2>(t465, t572);
        const P t616 = shuffled<1, 3>(t465, t572);
        // spectrum block of 2
        const P t617 = t615 + t616;
        io.out(42, 40, t617);
        const P t618 = t615 - t616;
        io.out(11, 9, t618);
        const P t619 = shuffled<0, 2>(t583, t564);
        const P t620 = shuffled<1, 3>(t583, t564);
        // spectrum block of 2
        const P t621 = t619 + t620;
        io.out(38, 36, t621);
        const P t622 = t619 - t620;
        io.out(7, 5, t622);
        const P t623 = shuffled<0, 2>(t495, t544);
        const P t624 = shuffled<1, 3>(t495, t544);
        // spectrum block of 2
        const P t625 = t623 + t624;
        io.out(34, 32, t625);
        const P t626 = t623 - t624;
        io.out(3, 1, t626);
        const P t627 = shuffled<0, 2>(t446, t593);
        const P t628 = shuffled<1, 3>(t446, t593);
        // spectrum block of 2
        const P t629 = t627 + t628;
        io.out(30, 28, t629);
        const P t630 = t627 - t628;
        io.out(61, 59, t630);
        const P t631 = shuffled<0, 2>(t466, t485);
        const P t632 = shuffled<1, 3>(t466, t485);
        // spectrum block of 2
        const P t633 = t631 + t632;
        io.out(26, 24, t633);
        const P t634 = t631 - t632;
        io.out(57, 55, t634);
        const P t635 = shuffled<0, 2>(t474, t563);
        const P t636 = shuffled<1, 3>(t474, t563);
        // spectrum block of 2
        const P t637 = t635 + t636;
        io.out(22, 20, t637);
        const P t638 = t635 - t636;
        io.out(53, 51, t638);
        const P t639 = shuffled<0, 2>(t573, t553);
        const P t640 = shuffled<1, 3>(t573, t553);
        // spectrum block of 2
        const P t641 = t639 + t640;
        io.out(18, 16, t641);
        const P t642 = t639 - t640;
        io.out(49, 47, t642);
        const P t643 = shuffled<0, 2>(t592, t477);
        const P t644 = shuffled<1, 3>(t592, t477);
        // spectrum block of 2
        const P t645 = t643 + t644;
        io.out(14, 12, t645);
        const P t646 = t643 - t644;
        io.out(45, 43, t646);
        const P t647 = shuffled<0, 2>(t555, t552);
        const P t648 = shuffled<1, 3>(t555, t552);
        // spectrum block of 2
        const P t649 = t647 + t648;
        io.out(10, 8, t649);
        const P t650 = t647 - t648;
        io.out(41, 39, t650);
        const P t651 = shuffled<0, 2>(t486, t543);
        const P t652 = shuffled<1, 3>(t486, t543);
        // spectrum block of 2
        const P t653 = t651 + t652;
        io.out(6, 4, t653);
        const P t654 = t651 - t652;
        io.out(37, 35, t654);
        const V t655 = part<0>(t535);
        const V t656 = part<1>(t535);
        // spectrum block of 2
        const V t657 = t655 + t656;
        io.out(2, t657);
        const V t658 = t655 - t656;
        io.out(33, t658);
    }
};

}  // namespace zulg
