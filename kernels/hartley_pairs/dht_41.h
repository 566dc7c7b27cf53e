// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 41.
// Hartley transform of 41 points, form F; two lanes to a register.
// 168 sums, 105 differences, 126 products of registers, which do the 767 steps of the graph, those with
// `scale` included; 127 shuffles, 31 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<41> {
    static constexpr int steps = 767;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
        0.9876883405951378,  // c[5]: cos 2 pi 39/40
        0.15643446504023087,  // c[6]: -sin 2 pi 39/40
        0.4539904997395468,  // c[7]: -sin 2 pi 37/40
        0.8910065241883679,  // c[8]: cos 2 pi 37/40
        0.2620989421184033,  // c[9]: P[1] of 41
        0.1838590344269595,  // c[10]: Q[1] of 41
        0.11219636857220389,  // c[11]: Q[2] of 41
        0.29985325557547343,  // c[12]: P[2] of 41
        0.08656031809698493,  // c[13]: P[3] of 41
        0.30823256046522535,  // c[14]: Q[3] of 41
        0.04161199958857812,  // c[15]: Q[4] of 41
        0.3174404534558256,  // c[16]: P[4] of 41
        0.12834895928380738,  // c[17]: P[5] of 41
        0.2933028207344136,  // c[18]: Q[5] of 41
        0.31967734584865853,  // c[19]: P[6] of 41
        0.017504129545828598,  // c[20]: -Q[6] of 41
        0.026176684051836208,  // c[21]: P[7] of 41
        0.31908428543576123,  // c[22]: -Q[7] of 41
        0.08921572340206974,  // c[23]: P[8] of 41
        0.3074744781243565,  // c[24]: Q[8] of 41
        0.3155360928303509,  // c[25]: P[9] of 41
        0.05419385685994486,  // c[26]: -Q[9] of 41
        0.10597392847320843,  // c[27]: -P[10] of 41
        0.30210846807720454,  // c[28]: -Q[10] of 41
        0.3116869402744416,  // c[29]: -P[11] of 41
        0.0731522471449556,  // c[30]: -Q[11] of 41
        0.2710001778953512,  // c[31]: -P[12] of 41
        0.17046672279564715,  // c[32]: -Q[12] of 41
        0.16968041280638677,  // c[33]: P[13] of 41
        0.27149319974882274,  // c[34]: Q[13] of 41
        0.30566398933844086,  // c[35]: Q[14] of 41
        0.09523405704741086,  // c[36]: P[14] of 41
        0.024028443109264917,  // c[37]: Q[15] of 41
        0.3192532441835867,  // c[38]: -P[15] of 41
        0.3186016615741431,  // c[39]: P[16] of 41
        0.03151160488130023,  // c[40]: Q[16] of 41
        0.2399755958777195,  // c[41]: -P[17] of 41
        0.21192383863816136,  // c[42]: -Q[17] of 41
        0.20984607269049432,  // c[43]: -P[18] of 41
        0.24179459418352547,  // c[44]: -Q[18] of 41
        0.17218367347358104,  // c[45]: P[19] of 41
        0.26991254618698857,  // c[46]: -Q[19] of 41
        0.025,  // c[47]: 1/40
        0.16007810593582122,  // c[48]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x10_24 = io.in(10, 24);
        const P x37_15 = io.in(37, 15);
        // real block of 5, multiplier 3
        const P t0 = x10_24 + x37_15;
        const P t1 = x10_24 - x37_15;
        const P x16_22 = io.in(16, 22);
        const P x18_35 = io.in(18, 35);
        const P t2 = x16_22 + x18_35;
        const P t3 = x16_22 - x18_35;
        const P t4 = t0 + t2;
        const P x1_27 = io.in(1, 27);
        const P t5 = t4 + x1_27;
        const P t6 = c[0] * t0;
        const P t7 = x1_27 - t6;
        const P t8 = c[1] * t2;
        const P t9 = t7 + t8;
        const P t10 = c[2] * t1;
        const P t11 = c[3] * t3;
        const P t12 = t10 + t11;
        const P t13 = c[1] * t0;
        const P t14 = c[0] * t2;
        const P t15 = t13 - t14;
        const P t16 = t15 + x1_27;
        const P t17 = c[2] * t3;
        const P t18 = c[3] * t1;
        const P t19 = t17 - t18;
        const P x33_30 = io.in(33, 30);
        const P x36_29 = io.in(36, 29);
        // real block of 5, multiplier 3
        const P t20 = x33_30 + x36_29;
        const P t21 = x33_30 - x36_29;
        const P x20_7 = io.in(20, 7);
        const P x2_13 = io.in(2, 13);
        const P t22 = x20_7 + x2_13;
        const P t23 = x20_7 - x2_13;
        const P t24 = t20 + t22;
        const P x32_3 = io.in(32, 3);
        const P t25 = t24 + x32_3;
        const P t26 = c[0] * t20;
        const P t27 = x32_3 - t26;
        const P t28 = c[1] * t22;
        const P t29 = t27 + t28;
        const P t30 = c[2] * t21;
        const P t31 = c[3] * t23;
        const P t32 = t30 + t31;
        const P t33 = c[1] * t20;
        const P t34 = c[0] * t22;
        const P t35 = t33 - t34;
        const P t36 = t35 + x32_3;
        const P t37 = c[2] * t23;
        const P t38 = c[3] * t21;
        const P t39 = t37 - t38;
        const P x31_17 = io.in(31, 17);
        const P x4_26 = io.in(4, 26);
        // real block of 5, multiplier 3
        const P t40 = x31_17 + x4_26;
        const P t41 = x31_17 - x4_26;
        const P x25_19 = io.in(25, 19);
        const P x23_6 = io.in(23, 6);
        const P t42 = x25_19 + x23_6;
        const P t43 = x25_19 - x23_6;
        const P t44 = t40 + t42;
        const P x40_14 = io.in(40, 14);
        const P t45 = t44 + x40_14;
        const P t46 = c[0] * t40;
        const P t47 = x40_14 - t46;
        const P t48 = c[1] * t42;
        const P t49 = t47 + t48;
        const P t50 = c[2] * t41;
        const P t51 = c[3] * t43;
        const P t52 = t50 + t51;
        const P t53 = c[1] * t40;
        const P t54 = c[0] * t42;
        const P t55 = t53 - t54;
        const P t56 = t55 + x40_14;
        const P t57 = c[2] * t43;
        const P t58 = c[3] * t41;
        const P t59 = t57 - t58;
        const P x8_11 = io.in(8, 11);
        const P x5_12 = io.in(5, 12);
        // real block of 5, multiplier 3
        const P t60 = x8_11 + x5_12;
        const P t61 = x8_11 - x5_12;
        const P x21_34 = io.in(21, 34);
        const P x39_28 = io.in(39, 28);
        const P t62 = x21_34 + x39_28;
        const P t63 = x21_34 - x39_28;
        const P t64 = t60 + t62;
        const P x9_38 = io.in(9, 38);
        const P t65 = t64 + x9_38;
        const P t66 = c[0] * t60;
        const P t67 = x9_38 - t66;
        const P t68 = c[1] * t62;
        const P t69 = t67 + t68;
        const P t70 = c[2] * t61;
        const P t71 = c[3] * t63;
        const P t72 = t70 + t71;
        const P t73 = c[1] * t60;
        const P t74 = c[0] * t62;
        const P t75 = t73 - t74;
        const P t76 = t75 + x9_38;
        const P t77 = c[2] * t63;
        const P t78 = c[3] * t61;
        const P t79 = t77 - t78;
        // real block of 2
        const P t80 = t5 + t45;
        const P t81 = t5 - t45;
        // real block of 2
        const P t82 = t25 + t65;
        const P t83 = t25 - t65;
        // real block of 2
        const P t84 = t80 + t82;
        const P t85 = t80 - t82;
        const V t86 = part<0>(t84);
        const V t87 = part<1>(t84);
        // real block of 2
        const V t88 = t86 + t87;
        const V t89 = t86 - t87;
        const V t90 = part<1>(t81);
        const V t91 = part<1>(t83);
        // skew block of 4, multiplier 5
        const V t92 = t90 - t91;
        const V t93 = t90 + t91;
        const V t94 = c[4] * t93;
        const V t95 = part<0>(t83);
        const V t96 = t94 - t95;
        const V t97 = part<0>(t81);
        const V t98 = c[4] * t92;
        const V t99 = t97 + t98;
        const V t100 = t95 + t94;
        const V t101 = t97 - t98;
        const P t102 = shuffled<0, 2>(t9, t12);
        const P t103 = shuffled<0, 2>(t49, t52);
        // complex block of 2
        const P t104 = t102 + t103;
        const P t105 = t102 - t103;
        const P t106 = shuffled<1, 3>(t9, t12);
        const P t107 = shuffled<1, 3>(t49, t52);
        // complex block of 2
        const P t108 = t106 + t107;
        const P t109 = t106 - t107;
        const P t110 = shuffled<0, 2>(t29, t32);
        const P t111 = shuffled<0, 2>(t69, t72);
        // complex block of 2
        const P t112 = t110 + t111;
        const P t113 = t110 - t111;
        const P t114 = shuffled<1, 3>(t29, t32);
        const P t115 = shuffled<1, 3>(t69, t72);
        // complex block of 2
        const P t116 = t114 + t115;
        const P t117 = t114 - t115;
        // complex block of 2
        const P t118 = t104 + t112;
        const P t119 = t104 - t112;
        // complex block of 2
        const P t120 = t108 + t116;
        const P t121 = t108 - t116;
        // complex block of 2
        const P t122 = t118 + t120;
        const P t123 = t118 - t120;
        const P t124 = shuffled<1, 0>(t121);
        const P t125 = flipped<0, 1>(t124);
        // complex block of 2
        const P t126 = t119 + t125;
        const P t127 = t119 - t125;
        // complex block of 8, multiplier 5
        const P t128 = c[4] * t109;
        const P t129 = shuffled<1, 0>(t128);
        const P t130 = flipped<0, 1>(t129);
        const P t131 = t128 + t130;
        const P t132 = c[4] * t117;
        const P t133 = shuffled<1, 0>(t132);
        const P t134 = flipped<0, 1>(t133);
        const P t135 = t132 + t134;
        const P t136 = shuffled<1, 0>(t113);
        const P t137 = flipped<0, 1>(t136);
        // complex block of 2
        const P t138 = t105 + t137;
        const P t139 = t105 - t137;
        const P t140 = shuffled<1, 0>(t135);
        const P t141 = flipped<0, 1>(t131);
        // complex block of 2
        const P t142 = t140 + t141;
        const P t143 = t140 - t141;
        const P t144 = flipped<1, 0>(t142);
        // complex block of 2
        const P t145 = t138 + t144;
        const P t146 = t138 - t144;
        const P t147 = shuffled<1, 0>(t143);
        // complex block of 2
        const P t148 = t139 - t147;
        const P t149 = t139 + t147;
        const P t150 = shuffled<0, 2>(t16, t19);
        const P t151 = shuffled<0, 2>(t56, t59);
        // complex block of 2
        const P t152 = t150 + t151;
        const P t153 = t150 - t151;
        const P t154 = shuffled<1, 3>(t16, t19);
        const P t155 = shuffled<1, 3>(t56, t59);
        // complex block of 2
        const P t156 = t154 + t155;
        const P t157 = t154 - t155;
        const P t158 = shuffled<0, 2>(t36, t39);
        const P t159 = shuffled<0, 2>(t76, t79);
        // complex block of 2
        const P t160 = t158 + t159;
        const P t161 = t158 - t159;
        const P t162 = shuffled<1, 3>(t36, t39);
        const P t163 = shuffled<1, 3>(t76, t79);
        // complex block of 2
        const P t164 = t162 + t163;
        const P t165 = t162 - t163;
        // complex block of 2
        const P t166 = t152 + t160;
        const P t167 = t152 - t160;
        // complex block of 2
        const P t168 = t156 + t164;
        const P t169 = t156 - t164;
        // complex block of 2
        const P t170 = t166 + t168;
        const P t171 = t166 - t168;
        const P t172 = shuffled<1, 0>(t169);
        const P t173 = flipped<0, 1>(t172);
        // complex block of 2
        const P t174 = t167 + t173;
        const P t175 = t167 - t173;
        // complex block of 8, multiplier 5
        const P t176 = c[4] * t157;
        const P t177 = shuffled<1, 0>(t176);
        const P t178 = flipped<0, 1>(t177);
        const P t179 = t176 + t178;
        const P t180 = c[4] * t165;
        const P t181 = shuffled<1, 0>(t180);
        const P t182 = flipped<0, 1>(t181);
        const P t183 = t180 + t182;
        const P t184 = shuffled<1, 0>(t161);
        const P t185 = flipped<0, 1>(t184);
        // complex block of 2
        const P t186 = t153 + t185;
        const P t187 = t153 - t185;
        const P t188 = shuffled<1, 0>(t183);
        const P t189 = flipped<0, 1>(t179);
        // complex block of 2
        const P t190 = t188 + t189;
        const P t191 = t188 - t189;
        const P t192 = flipped<1, 0>(t190);
        // complex block of 2
        const P t193 = t186 + t192;
        const P t194 = t186 - t192;
        const P t195 = shuffled<1, 0>(t191);
        // complex block of 2
        const P t196 = t187 - t195;
        const P t197 = t187 + t195;
        const V x0 = io.in(0);
        // real block of 41, multiplier 40
        const V t198 = x0 + t88;
        io.out(0, t198);
        const V t199 = c[47] * t88;
        const V t200 = x0 - t199;
        const P t201 = c[9] * t194;
        const P t202 = shuffled<1, 0>(t194);
        const P t203 = P(-c[10], c[10]) * t202;
        const P t204 = t201 + t203;
        const P t205 = shuffled<1, 0>(t127);
        const P t206 = c[11] * t205;
        const P t207 = P(c[12], -c[12]) * t127;
        const P t208 = t206 + t207;
        const P t209 = c[13] * t149;
        const P t210 = shuffled<1, 0>(t149);
        const P t211 = P(-c[14], c[14]) * t210;
        const P t212 = t209 + t211;
        const P t213 = shuffled<1, 0>(t171);
        const P t214 = c[15] * t213;
        const P t215 = P(c[16], -c[16]) * t171;
        const P t216 = t214 + t215;
        const P t217 = joined(t101, t96);
        const P t218 = c[17] * t217;
        const P t219 = shuffled<1, 0>(t217);
        const P t220 = P(-c[18], c[18]) * t219;
        const P t221 = t218 + t220;
        const P t222 = c[19] * t175;
        const P t223 = shuffled<1, 0>(t175);
        const P t224 = P(c[20], -c[20]) * t223;
        const P t225 = t222 + t224;
        const P t226 = c[21] * t146;
        const P t227 = shuffled<1, 0>(t146);
        const P t228 = P(-c[22], c[22]) * t227;
        const P t229 = t226 + t228;
        const P t230 = c[23] * t122;
        const P t231 = shuffled<1, 0>(t122);
        const P t232 = P(-c[24], c[24]) * t231;
        const P t233 = t230 + t232;
        const P t234 = c[25] * t196;
        const P t235 = shuffled<1, 0>(t196);
        const P t236 = P(-c[26], c[26]) * t235;
        const P t237 = t234 + t236;
        const P t238 = c[27] * t85;
        const P t239 = shuffled<1, 0>(t85);
        const P t240 = P(c[28], -c[28]) * t239;
        const P t241 = t238 + t240;
        const P t242 = P(-c[29], c[29]) * t197;
        const P t243 = shuffled<1, 0>(t197);
        const P t244 = c[30] * t243;
        const P t245 = t242 + t244;
        const P t246 = c[31] * t123;
        const P t247 = shuffled<1, 0>(t123);
        const P t248 = P(c[32], -c[32]) * t247;
        const P t249 = t246 + t248;
        const P t250 = c[33] * t145;
        const P t251 = shuffled<1, 0>(t145);
        const P t252 = P(-c[34], c[34]) * t251;
        const P t253 = t250 + t252;
        const P t254 = shuffled<1, 0>(t174);
        const P t255 = c[35] * t254;
        const P t256 = P(c[36], -c[36]) * t174;
        const P t257 = t255 + t256;
        const P t258 = joined(t100, t99);
        const P t259 = c[37] * t258;
        const P t260 = shuffled<1, 0>(t258);
        const P t261 = P(c[38], -c[38]) * t260;
        const P t262 = t259 + t261;
        const P t263 = c[39] * t170;
        const P t264 = shuffled<1, 0>(t170);
        const P t265 = P(-c[40], c[40]) * t264;
        const P t266 = t263 + t265;
        const P t267 = c[41] * t148;
        const P t268 = shuffled<1, 0>(t148);
        const P t269 = P(c[42], -c[42]) * t268;
        const P t270 = t267 + t269;
        const P t271 = P(-c[43], c[43]) * t126;
        const P t272 = shuffled<1, 0>(t126);
        const P t273 = c[44] * t272;
        const P t274 = t271 + t273;
        const P t275 = c[45] * t193;
        const P t276 = shuffled<1, 0>(t193);
        const P t277 = P(-c[46], c[46]) * t276;
        const P t278 = t275 + t277;
        const P t279 = shuffled<0, 2>(t233, t249);
        // spectrum block of 5, multiplier 4
        const P t280 = c[1] * t279;
        const V t281 = part<0>(t280);
        const V t282 = part<0>(t266);
        const V t283 = c[0] * t282;
        const V t284 = t281 - t283;
        const P t285 = c[0] * t279;
        const V t286 = part<0>(t285);
        const V t287 = t200 - t286;
        const P t288 = flipped<0, 1>(t274);
        // complex block of 5, multiplier 4
        const P t289 = t208 + t288;
        const P t290 = flipped<1, 0>(t208);
        const P t291 = t274 + t290;
        const P t292 = t225 + t257;
        const P t293 = shuffled<0, 3>(t225, t257);
        const P t294 = shuffled<0, 3>(t257, t225);
        const P t295 = t293 - t294;
        const P t296 = flipped<0, 1>(t292);
        const P t297 = t289 + t296;
        const P t298 = flipped<1, 0>(t241);
        const P t299 = t297 + t298;
        const P t300 = c[1] * t289;
        const P t301 = P(-c[0], c[0]) * t292;
        const P t302 = t300 + t301;
        const P t303 = t302 + t298;
        const P t304 = c[3] * t291;
        const P t305 = P(-c[2], c[2]) * t295;
        const P t306 = t304 + t305;
        const P t307 = shuffled<1, 0>(t306);
        const P t308 = t303 + t307;
        const P t309 = t303 - t307;
        const P t310 = P(c[0], -c[0]) * t289;
        const P t311 = t241 + t310;
        const P t312 = flipped<1, 0>(t311);
        const P t313 = P(c[1], -c[1]) * t292;
        const P t314 = t312 + t313;
        const P t315 = c[3] * t295;
        const P t316 = P(c[2], -c[2]) * t291;
        const P t317 = t315 + t316;
        const P t318 = shuffled<1, 0>(t317);
        const P t319 = flipped<1, 0>(t318);
        const P t320 = t314 + t319;
        const P t321 = t314 - t319;
        const P t322 = shuffled<0, 2>(t266, t216);
        const P t323 = flipped<0, 1>(t279);
        // spectrum block of 5, multiplier 4
        const P t324 = t322 + t323;
        // real block of 41, multiplier 40
        const V t325 = c[48] * t89;
        const P t326 = joined(t200, t325);
        // spectrum block of 5, multiplier 4
        const P t327 = t324 + t326;
        const V t328 = part<1>(t280);
        // spectrum block of 5, multiplier 4
        const V t329 = t325 - t328;
        const P t330 = joined(t284, t329);
        const V t331 = part<0>(t216);
        const V t332 = -c[0] * t331;
        const P t333 = joined(t200, t332);
        // spectrum block of 5, multiplier 4
        const P t334 = t330 + t333;
        const P t335 = shuffled<1, 3>(t233, t249);
        const P t336 = c[3] * t335;
        const P t337 = shuffled<1, 3>(t266, t216);
        const P t338 = c[2] * t337;
        const P t339 = t336 + t338;
        const P t340 = flipped<1, 0>(t339);
        const P t341 = t334 + t340;
        const P t342 = t334 - t340;
        const V t343 = part<1>(t285);
        // spectrum block of 5, multiplier 4
        const V t344 = c[1] * t331;
        const V t345 = t343 + t344;
        const P t346 = joined(t287, t345);
        // spectrum block of 5, multiplier 4
        const V t347 = c[1] * t282;
        const P t348 = joined(t347, t325);
        const P t349 = t346 + t348;
        const P t350 = P(-c[3], c[3]) * t337;
        const P t351 = P(c[2], -c[2]) * t335;
        const P t352 = t350 + t351;
        const P t353 = t349 - t352;
        const P t354 = t349 + t352;
        const P t355 = shuffled<0, 2>(t327, t342);
        const P t356 = shuffled<1, 3>(t327, t342);
        // spectrum block of 2
        const P t357 = t355 + t356;
        const P t358 = t355 - t356;
        const P t359 = shuffled<0, 2>(t299, t309);
        // spectrum block of 2
        const P t360 = t357 + t359;
        const P t361 = t357 - t359;
        const P t362 = shuffled<1, 3>(t299, t309);
        // spectrum block of 2
        const P t363 = t358 - t362;
        const P t364 = t358 + t362;
        const P t365 = shuffled<0, 2>(t354, t353);
        const P t366 = shuffled<1, 3>(t354, t353);
        // spectrum block of 2
        const P t367 = t365 + t366;
        const P t368 = t365 - t366;
        const P t369 = shuffled<0, 2>(t321, t320);
        // spectrum block of 2
        const P t370 = t367 + t369;
        const P t371 = t367 - t369;
        const P t372 = shuffled<1, 3>(t321, t320);
        // spectrum block of 2
        const P t373 = t368 - t372;
        const P t374 = t368 + t372;
        const V t375 = part<0>(t341);
        const V t376 = part<1>(t341);
        // spectrum block of 2
        const V t377 = t375 + t376;
        const V t378 = t375 - t376;
        const P t379 = joined(t377, t378);
        const P t380 = flipped<0, 1>(t308);
        // spectrum block of 2
        const P t381 = t379 + t380;
        const P t382 = t379 - t380;
        const P t383 = shuffled<1, 2>(t204, t278);
        const P t384 = shuffled<1, 2>(t278, t204);
        // complex block of 2
        const P t385 = t383 - t384;
        const P t386 = t384 + t383;
        const P t387 = shuffled<1, 2>(t245, t237);
        const P t388 = shuffled<1, 2>(t237, t245);
        const P t389 = flipped<0, 1>(t388);
        // complex block of 2
        const P t390 = t387 + t389;
        const P t391 = flipped<1, 0>(t387);
        const P t392 = t388 + t391;
        const P t393 = flipped<1, 0>(t390);
        // complex block of 2
        const P t394 = t385 + t393;
        const P t395 = t385 - t393;
        const P t396 = shuffled<1, 0>(t392);
        const P t397 = flipped<0, 1>(t386);
        // complex block of 2
        const P t398 = t396 + t397;
        const P t399 = flipped<1, 0>(t396);
        const P t400 = t386 + t399;
        // mirrored skew block of 20
        const P t401 = c[5] * t398;
        const P t402 = shuffled<1, 0>(t398);
        const P t403 = P(-c[6], c[6]) * t402;
        const P t404 = t401 + t403;
        const P t405 = c[3] * t395;
        const P t406 = shuffled<1, 0>(t395);
        const P t407 = P(-c[1], c[1]) * t406;
        const P t408 = t405 + t407;
        const P t409 = shuffled<1, 0>(t400);
        const P t410 = c[7] * t409;
        const P t411 = P(c[8], -c[8]) * t400;
        const P t412 = t410 + t411;
        const P t413 = shuffled<1, 0>(t212);
        const P t414 = shuffled<1, 0>(t270);
        // complex block of 2
        const P t415 = t413 + t414;
        const P t416 = shuffled<0, 3>(t413, t414);
        const P t417 = shuffled<0, 3>(t414, t413);
        const P t418 = t416 - t417;
        const P t419 = shuffled<1, 2>(t253, t229);
        const P t420 = shuffled<1, 2>(t229, t253);
        // complex block of 2
        const P t421 = t419 - t420;
        const P t422 = t420 + t419;
        const P t423 = flipped<0, 1>(t415);
        // complex block of 2
        const P t424 = t421 + t423;
        const P t425 = flipped<1, 0>(t421);
        const P t426 = t415 + t425;
        const P t427 = shuffled<1, 0>(t422);
        // complex block of 2
        const P t428 = t418 + t427;
        const P t429 = t418 - t427;
        // mirrored skew block of 20
        const P t430 = c[8] * t428;
        const P t431 = shuffled<1, 0>(t428);
        const P t432 = P(-c[7], c[7]) * t431;
        const P t433 = t430 + t432;
        const P t434 = shuffled<1, 0>(t426);
        const P t435 = c[0] * t434;
        const P t436 = P(c[2], -c[2]) * t426;
        const P t437 = t435 + t436;
        const P t438 = c[6] * t429;
        const P t439 = shuffled<1, 0>(t429);
        const P t440 = P(-c[5], c[5]) * t439;
        const P t441 = t438 + t440;
        const V t442 = part<1>(t221);
        const V t443 = part<1>(t262);
        // mirrored skew block of 4
        const V t444 = t442 - t443;
        const V t445 = part<0>(t262);
        const V t446 = part<0>(t221);
        const V t447 = t445 - t446;
        const V t448 = t442 + t443;
        const V t449 = c[4] * t444;
        const V t450 = c[4] * t447;
        const V t451 = t449 - t450;
        const V t452 = t446 + t445;
        const V t453 = t449 + t450;
        const P t454 = shuffled<0, 2>(t424, t433);
        const P t455 = shuffled<0, 2>(t394, t404);
        // spectrum block of 5, multiplier 2
        const P t456 = t454 + t455;
        const P t457 = joined(t448, t451);
        const P t458 = t456 + t457;
        const P t459 = c[1] * t454;
        const P t460 = c[0] * t455;
        const P t461 = t459 - t460;
        const P t462 = t461 + t457;
        const P t463 = shuffled<1, 3>(t424, t433);
        const P t464 = c[3] * t463;
        const P t465 = shuffled<1, 3>(t394, t404);
        const P t466 = c[2] * t465;
        const P t467 = t464 + t466;
        const P t468 = t462 + t467;
        const P t469 = t462 - t467;
        const P t470 = c[0] * t454;
        const P t471 = t457 - t470;
        const P t472 = c[1] * t455;
        const P t473 = t471 + t472;
        const P t474 = c[3] * t465;
        const P t475 = c[2] * t463;
        const P t476 = t474 - t475;
        const P t477 = t473 - t476;
        const P t478 = t473 + t476;
        const P t479 = shuffled<0, 2>(t437, t441);
        const P t480 = shuffled<0, 2>(t408, t412);
        // spectrum block of 5, multiplier 2
        const P t481 = t479 + t480;
        const V t482 = flipped<1>(t453);
        const P t483 = joined(t452, t482);
        const P t484 = t481 + t483;
        const P t485 = c[1] * t479;
        const P t486 = c[0] * t480;
        const P t487 = t485 - t486;
        const P t488 = t487 + t483;
        const P t489 = shuffled<1, 3>(t437, t441);
        const P t490 = c[3] * t489;
        const P t491 = shuffled<1, 3>(t408, t412);
        const P t492 = c[2] * t491;
        const P t493 = t490 + t492;
        const P t494 = t488 + t493;
        const P t495 = t488 - t493;
        const P t496 = flipped<0, 1>(t483);
        const P t497 = P(-c[0], c[0]) * t479;
        const P t498 = t496 + t497;
        const P t499 = c[1] * t480;
        const P t500 = flipped<0, 1>(t498);
        const P t501 = t499 + t500;
        const P t502 = c[3] * t491;
        const P t503 = c[2] * t489;
        const P t504 = t502 - t503;
        const P t505 = t501 - t504;
        const P t506 = t501 + t504;
        const V t507 = part<0>(t360);
        const V t508 = part<0>(t458);
        // output stage
        const V t509 = t507 + t508;
        io.out(1, t509);
        const V t510 = t507 - t508;
        io.out(40, t510);
        const V t511 = part<1>(t361);
        const V t512 = part<0>(t506);
        const V t513 = t511 - t512;
        io.out(2, t513);
        const V t514 = t511 + t512;
        io.out(39, t514);
        const V t515 = part<0>(t363);
        const V t516 = part<1>(t468);
        const V t517 = t515 + t516;
        io.out(3, t517);
        const V t518 = t515 - t516;
        io.out(38, t518);
        const V t519 = part<0>(t370);
        const V t520 = part<0>(t477);
        const V t521 = t519 - t520;
        io.out(4, t521);
        const V t522 = t519 + t520;
        io.out(37, t522);
        const V t523 = part<0>(t371);
        const V t524 = part<0>(t495);
        const V t525 = t523 + t524;
        io.out(5, t525);
        const V t526 = t523 - t524;
        io.out(36, t526);
        const V t527 = part<1>(t364);
        const V t528 = part<1>(t495);
        const V t529 = t527 - t528;
        io.out(6, t529);
        const V t530 = t527 + t528;
        io.out(35, t530);
        const V t531 = part<1>(t381);
        const V t532 = part<1>(t458);
        const V t533 = t531 + t532;
        io.out(7, t533);
        const V t534 = t531 - t532;
        io.out(34, t534);
        const V t535 = part<1>(t371);
        const V t536 = part<0>(t484);
        const V t537 = t535 + t536;
        io.out(8, t537);
        const V t538 = t535 - t536;
        io.out(33, t538);
        const V t539 = part<0>(t361);
        const V t540 = part<0>(t505);
        const V t541 = t539 + t540;
        io.out(9, t541);
        const V t542 = t539 - t540;
        io.out(32, t542);
        const V t543 = part<1>(t370);
        const V t544 = part<0>(t478);
        const V t545 = t543 + t544;
        io.out(10, t545);
        const V t546 = t543 - t544;
        io.out(31, t546);
        const V t547 = part<1>(t373);
        const V t548 = part<1>(t469);
        const V t549 = t547 - t548;
        io.out(11, t549);
        const V t550 = t547 + t548;
        io.out(30, t550);
        const V t551 = part<0>(t373);
        const V t552 = part<1>(t478);
        const V t553 = t551 - t552;
        io.out(12, t553);
        const V t554 = t551 + t552;
        io.out(29, t554);
        const V t555 = part<1>(t363);
        const V t556 = part<1>(t477);
        const V t557 = t555 + t556;
        io.out(13, t557);
        const V t558 = t555 - t556;
        io.out(28, t558);
        const V t559 = part<0>(t364);
        const V t560 = part<1>(t506);
        const V t561 = t559 - t560;
        io.out(14, t561);
        const V t562 = t559 + t560;
        io.out(27, t562);
        const V t563 = part<0>(t374);
        const V t564 = part<1>(t484);
        const V t565 = t563 + t564;
        io.out(15, t565);
        const V t566 = t563 - t564;
        io.out(26, t566);
        const V t567 = part<0>(t381);
        const V t568 = part<0>(t469);
        const V t569 = t567 + t568;
        io.out(16, t569);
        const V t570 = t567 - t568;
        io.out(25, t570);
        const V t571 = part<1>(t374);
        const V t572 = part<1>(t494);
        const V t573 = t571 - t572;
        io.out(17, t573);
        const V t574 = t571 + t572;
        io.out(24, t574);
        const V t575 = part<1>(t360);
        const V t576 = part<0>(t468);
        const V t577 = t575 + t576;
        io.out(18, t577);
        const V t578 = t575 - t576;
        io.out(23, t578);
        const V t579 = part<1>(t382);
        const V t580 = part<1>(t505);
        const V t581 = t579 - t580;
        io.out(19, t581);
        const V t582 = t579 + t580;
        io.out(22, t582);
        const V t583 = part<0>(t382);
        const V t584 = part<0>(t494);
        const V t585 = t583 - t584;
        io.out(20, t585);
        const V t586 = t583 + t584;
        io.out(21, t586);
    }
};

}  // namespace zulg
