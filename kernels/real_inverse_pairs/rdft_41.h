// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 41.
// Inverse DFT to 41 real points, Rader 5, 8; two lanes to a register.
// 150 sums, 85 differences, 148 products of registers, which do the 767 steps of the graph, those with
// `scale` included; 128 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<41> {
    static constexpr int steps = 767;  // with `scale`
    static constexpr double inverseRoot = 0.15617376188860607;  // 1/sqrt(41), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 4/5
        0.8090169943749475,  // c[2]: -cos 2 pi 12/5
        0.9510565162951535,  // c[3]: -sin 2 pi 4/5
        0.5877852522924731,  // c[4]: sin 2 pi 12/5
        0.7071067811865476,  // c[5]: cos 2 pi 1/8
        0.9876883405951378,  // c[6]: cos 2 pi 1/40
        0.15643446504023087,  // c[7]: sin 2 pi 1/40
        0.8910065241883679,  // c[8]: cos 2 pi 3/40
        0.4539904997395468,  // c[9]: sin 2 pi 3/40
        0.2620989421184033,  // c[10]: P[1] of 41
        0.1838590344269595,  // c[11]: -Q[1] of 41
        0.11219636857220389,  // c[12]: Q[2] of 41
        0.29985325557547343,  // c[13]: P[2] of 41
        0.08656031809698493,  // c[14]: P[3] of 41
        0.30823256046522535,  // c[15]: -Q[3] of 41
        0.04161199958857812,  // c[16]: Q[4] of 41
        0.3174404534558256,  // c[17]: P[4] of 41
        0.2933028207344136,  // c[18]: -Q[5] of 41
        0.12834895928380738,  // c[19]: P[5] of 41
        0.31967734584865853,  // c[20]: P[6] of 41
        0.017504129545828598,  // c[21]: -Q[6] of 41
        0.026176684051836208,  // c[22]: P[7] of 41
        0.31908428543576123,  // c[23]: Q[7] of 41
        0.08921572340206974,  // c[24]: P[8] of 41
        0.3074744781243565,  // c[25]: Q[8] of 41
        0.3155360928303509,  // c[26]: P[9] of 41
        0.05419385685994486,  // c[27]: Q[9] of 41
        0.10597392847320843,  // c[28]: -P[10] of 41
        0.30210846807720454,  // c[29]: -Q[10] of 41
        0.0731522471449556,  // c[30]: Q[11] of 41
        0.3116869402744416,  // c[31]: -P[11] of 41
        0.2710001778953512,  // c[32]: -P[12] of 41
        0.17046672279564715,  // c[33]: -Q[12] of 41
        0.16968041280638677,  // c[34]: P[13] of 41
        0.27149319974882274,  // c[35]: -Q[13] of 41
        0.30566398933844086,  // c[36]: Q[14] of 41
        0.09523405704741086,  // c[37]: P[14] of 41
        0.024028443109264917,  // c[38]: -Q[15] of 41
        0.3192532441835867,  // c[39]: -P[15] of 41
        0.3186016615741431,  // c[40]: P[16] of 41
        0.03151160488130023,  // c[41]: Q[16] of 41
        0.21192383863816136,  // c[42]: Q[17] of 41
        0.2399755958777195,  // c[43]: -P[17] of 41
        0.20984607269049432,  // c[44]: -P[18] of 41
        0.24179459418352547,  // c[45]: -Q[18] of 41
        0.17218367347358104,  // c[46]: P[19] of 41
        0.26991254618698857,  // c[47]: Q[19] of 41
        0.025,  // c[48]: 1/40
        0.16007810593582122,  // c[49]: beta of 41
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x16 = io.pair(16);
        // doubled bins
        const P t0 = c[0] * x16;
        const P x19 = io.pair(19);
        const P t1 = c[0] * x19;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x18 = io.pair(18);
        const P t3 = c[0] * x18;
        const P x6 = io.pair(6);
        const P t4 = c[0] * x6;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 5, multiplier 4
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x4 = io.pair(4);
        // doubled bins
        const P t8 = c[0] * x4;
        const P x15 = io.pair(15);
        const P t9 = c[0] * x15;
        const P t10 = shuffled<0, 2>(t8, t9);
        const P x10 = io.pair(10);
        const P t11 = c[0] * x10;
        const P x17 = io.pair(17);
        const P t12 = c[0] * x17;
        const P t13 = shuffled<0, 2>(t11, t12);
        // real block of 5, multiplier 4
        const P t14 = t10 + t13;
        const P t15 = t10 - t13;
        const P t16 = t6 + t14;
        const P x1 = io.pair(1);
        // doubled bins
        const P t17 = c[0] * x1;
        const P x14 = io.pair(14);
        const P t18 = c[0] * x14;
        const P t19 = shuffled<0, 2>(t17, t18);
        // real block of 5, multiplier 4
        const P t20 = t16 + t19;
        const P t21 = c[1] * t6;
        const P t22 = c[2] * t14;
        const P t23 = t21 - t22;
        const P t24 = t23 + t19;
        const P t25 = c[3] * t7;
        const P t26 = c[4] * t15;
        const P t27 = t25 - t26;
        const P t28 = c[2] * t6;
        const P t29 = t19 - t28;
        const P t30 = c[1] * t14;
        const P t31 = t29 + t30;
        const P t32 = c[4] * t7;
        const P t33 = c[3] * t15;
        const P t34 = t32 + t33;
        const P x20 = io.pair(20);
        // doubled bins
        const P t35 = c[0] * x20;
        const P x7 = io.pair(7);
        const P t36 = c[0] * x7;
        const P t37 = shuffled<0, 2>(t35, t36);
        const P x2 = io.pair(2);
        const P t38 = c[0] * x2;
        const P x13 = io.pair(13);
        const P t39 = c[0] * x13;
        const P t40 = shuffled<0, 2>(t38, t39);
        // real block of 5, multiplier 4
        const P t41 = t37 + t40;
        const P t42 = t37 - t40;
        const P x5 = io.pair(5);
        // doubled bins
        const P t43 = c[0] * x5;
        const P x12 = io.pair(12);
        const P t44 = c[0] * x12;
        const P t45 = shuffled<0, 2>(t43, t44);
        const P x8 = io.pair(8);
        const P t46 = c[0] * x8;
        const P x11 = io.pair(11);
        const P t47 = c[0] * x11;
        const P t48 = shuffled<0, 2>(t46, t47);
        // real block of 5, multiplier 4
        const P t49 = t45 + t48;
        const P t50 = t45 - t48;
        const P t51 = t41 + t49;
        const P x9 = io.pair(9);
        // doubled bins
        const P t52 = c[0] * x9;
        const P x3 = io.pair(3);
        const P t53 = c[0] * x3;
        const P t54 = shuffled<0, 2>(t52, t53);
        // real block of 5, multiplier 4
        const P t55 = t51 + t54;
        const P t56 = c[1] * t41;
        const P t57 = c[2] * t49;
        const P t58 = t56 - t57;
        const P t59 = t58 + t54;
        const P t60 = c[3] * t42;
        const P t61 = c[4] * t50;
        const P t62 = t60 - t61;
        const P t63 = c[2] * t41;
        const P t64 = t54 - t63;
        const P t65 = c[1] * t49;
        const P t66 = t64 + t65;
        const P t67 = c[4] * t42;
        const P t68 = c[3] * t50;
        const P t69 = t67 + t68;
        // real block of 2
        const P t70 = t20 + t55;
        const P t71 = t20 - t55;
        const V t72 = part<0>(t70);
        const V t73 = part<1>(t70);
        // real block of 2
        const V t74 = t72 + t73;
        const V t75 = t72 - t73;
        const P t76 = shuffled<0, 2>(t24, t27);
        const P t77 = shuffled<0, 2>(t59, t62);
        // complex block of 2
        const P t78 = t76 + t77;
        const P t79 = t76 - t77;
        const P t80 = shuffled<1, 3>(t24, t27);
        const P t81 = shuffled<1, 3>(t59, t62);
        // complex block of 2
        const P t82 = t80 + t81;
        const P t83 = t80 - t81;
        // complex block of 2
        const P t84 = t78 + t82;
        const P t85 = t78 - t82;
        const P t86 = shuffled<1, 0>(t83);
        const P t87 = flipped<0, 1>(t86);
        // complex block of 2
        const P t88 = t79 + t87;
        const P t89 = t79 - t87;
        const P t90 = shuffled<0, 2>(t31, t34);
        const P t91 = shuffled<0, 2>(t66, t69);
        // complex block of 2
        const P t92 = t90 + t91;
        const P t93 = t90 - t91;
        const P t94 = shuffled<1, 3>(t31, t34);
        const P t95 = shuffled<1, 3>(t66, t69);
        // complex block of 2
        const P t96 = t94 + t95;
        const P t97 = t94 - t95;
        // complex block of 2
        const P t98 = t92 + t96;
        const P t99 = t92 - t96;
        const P t100 = shuffled<1, 0>(t97);
        const P t101 = flipped<0, 1>(t100);
        // complex block of 2
        const P t102 = t93 + t101;
        const P t103 = t93 - t101;
        const P t104 = shuffled<1, 3>(t0, t18);
        const P t105 = shuffled<1, 3>(t3, t9);
        const P t106 = flipped<0, 1>(t105);
        // real block of 5
        const P t107 = t104 + t106;
        const P t108 = t104 - t106;
        const P t109 = shuffled<1, 3>(t11, t12);
        const P t110 = shuffled<1, 3>(t8, t1);
        const P t111 = flipped<1, 0>(t110);
        const P t112 = t109 + t111;
        const P t113 = t109 - t111;
        const P t114 = t107 + t112;
        const P t115 = shuffled<1, 3>(t17, t4);
        const P t116 = t114 + t115;
        const P t117 = c[1] * t107;
        const P t118 = c[2] * t112;
        const P t119 = t117 - t118;
        const P t120 = t119 + t115;
        const P t121 = c[4] * t113;
        const P t122 = P(c[3], -c[3]) * t108;
        const P t123 = t121 + t122;
        const P t124 = c[2] * t107;
        const P t125 = t115 - t124;
        const P t126 = c[1] * t112;
        const P t127 = t125 + t126;
        const P t128 = P(-c[4], c[4]) * t108;
        const P t129 = c[3] * t113;
        const P t130 = t128 + t129;
        const P t131 = shuffled<1, 3>(t38, t44);
        const P t132 = shuffled<1, 3>(t46, t36);
        // real block of 5
        const P t133 = t131 - t132;
        const P t134 = t131 + t132;
        const P t135 = shuffled<1, 3>(t35, t53);
        const P t136 = shuffled<1, 3>(t52, t39);
        const P t137 = flipped<1, 0>(t136);
        const P t138 = t135 + t137;
        const P t139 = flipped<0, 1>(t135);
        const P t140 = t136 + t139;
        const P t141 = flipped<0, 1>(t138);
        const P t142 = t133 + t141;
        const P t143 = shuffled<1, 3>(t43, t47);
        const P t144 = flipped<1, 0>(t143);
        const P t145 = t142 + t144;
        const P t146 = c[1] * t133;
        const P t147 = P(-c[2], c[2]) * t138;
        const P t148 = t146 + t147;
        const P t149 = t148 + t144;
        const P t150 = c[4] * t140;
        const P t151 = c[3] * t134;
        const P t152 = t150 - t151;
        const P t153 = P(c[2], -c[2]) * t133;
        const P t154 = t143 + t153;
        const P t155 = flipped<1, 0>(t154);
        const P t156 = P(c[1], -c[1]) * t138;
        const P t157 = t155 + t156;
        const P t158 = c[4] * t134;
        const P t159 = c[3] * t140;
        const P t160 = t158 + t159;
        const P t161 = shuffled<1, 3>(t127, t130);
        // skew block of 20
        const P t162 = c[6] * t161;
        const P t163 = shuffled<1, 0>(t161);
        const P t164 = P(c[7], -c[7]) * t163;
        const P t165 = t162 + t164;
        const P t166 = shuffled<0, 2>(t157, t160);
        const P t167 = c[3] * t166;
        const P t168 = shuffled<1, 0>(t166);
        const P t169 = P(c[1], -c[1]) * t168;
        const P t170 = t167 + t169;
        const P t171 = shuffled<1, 3>(t157, t160);
        const P t172 = c[8] * t171;
        const P t173 = shuffled<1, 0>(t171);
        const P t174 = P(c[9], -c[9]) * t173;
        const P t175 = t172 + t174;
        const P t176 = shuffled<0, 2>(t127, t130);
        const P t177 = flipped<0, 1>(t176);
        // complex block of 2
        const P t178 = t170 + t177;
        const P t179 = flipped<1, 0>(t170);
        const P t180 = t176 + t179;
        // complex block of 2
        const P t181 = t165 + t175;
        const P t182 = t165 - t175;
        // complex block of 2
        const P t183 = t178 + t181;
        const P t184 = t178 - t181;
        const P t185 = shuffled<1, 0>(t182);
        // complex block of 2
        const P t186 = t180 + t185;
        const P t187 = shuffled<0, 3>(t180, t185);
        const P t188 = shuffled<0, 3>(t185, t180);
        const P t189 = t187 - t188;
        const P t190 = shuffled<1, 3>(t120, t123);
        // skew block of 20
        const P t191 = c[8] * t190;
        const P t192 = shuffled<1, 0>(t190);
        const P t193 = P(-c[9], c[9]) * t192;
        const P t194 = t191 + t193;
        const P t195 = shuffled<0, 2>(t149, t152);
        const P t196 = c[4] * t195;
        const P t197 = shuffled<1, 0>(t195);
        const P t198 = P(-c[2], c[2]) * t197;
        const P t199 = t196 + t198;
        const P t200 = shuffled<1, 3>(t149, t152);
        const P t201 = c[7] * t200;
        const P t202 = shuffled<1, 0>(t200);
        const P t203 = P(-c[6], c[6]) * t202;
        const P t204 = t201 + t203;
        const P t205 = shuffled<0, 2>(t120, t123);
        const P t206 = flipped<0, 1>(t199);
        // complex block of 2
        const P t207 = t205 + t206;
        const P t208 = t205 - t206;
        // complex block of 2
        const P t209 = t194 + t204;
        const P t210 = shuffled<0, 3>(t194, t204);
        const P t211 = shuffled<0, 3>(t204, t194);
        const P t212 = t210 - t211;
        const P t213 = flipped<0, 1>(t209);
        // complex block of 2
        const P t214 = t207 + t213;
        const P t215 = t207 - t213;
        const P t216 = shuffled<1, 0>(t212);
        const P t217 = flipped<0, 1>(t216);
        // complex block of 2
        const P t218 = t208 + t217;
        const P t219 = t208 - t217;
        const V t220 = part<1>(t116);
        const V t221 = part<1>(t145);
        // skew block of 4
        const V t222 = t220 - t221;
        const V t223 = t220 + t221;
        const V t224 = c[5] * t223;
        const V t225 = part<0>(t145);
        const V t226 = t224 - t225;
        const V t227 = part<0>(t116);
        const V t228 = c[5] * t222;
        const V t229 = t227 + t228;
        const V t230 = t225 + t224;
        const V t231 = t227 - t228;
        const V x0r = io.re(0);
        // spectrum block of 41
        const V t232 = c[48] * t74;
        const V t233 = x0r - t232;
        const P t234 = shuffled<1, 0>(t183);
        const P t235 = c[10] * t234;
        const P t236 = P(c[11], -c[11]) * t183;
        const P t237 = t235 + t236;
        const P t238 = shuffled<1, 0>(t89);
        const P t239 = c[12] * t238;
        const P t240 = P(c[13], -c[13]) * t89;
        const P t241 = t239 + t240;
        const P t242 = shuffled<1, 0>(t214);
        const P t243 = c[14] * t242;
        const P t244 = P(c[15], -c[15]) * t214;
        const P t245 = t243 + t244;
        const P t246 = shuffled<1, 0>(t99);
        const P t247 = c[16] * t246;
        const P t248 = P(c[17], -c[17]) * t99;
        const P t249 = t247 + t248;
        const P t250 = joined(t229, t230);
        const P t251 = P(-c[18], c[18]) * t250;
        const P t252 = shuffled<1, 0>(t250);
        const P t253 = c[19] * t252;
        const P t254 = t251 + t253;
        const P t255 = c[20] * t103;
        const P t256 = shuffled<1, 0>(t103);
        const P t257 = P(c[21], -c[21]) * t256;
        const P t258 = t255 + t257;
        const P t259 = shuffled<1, 0>(t219);
        const P t260 = c[22] * t259;
        const P t261 = P(c[23], -c[23]) * t219;
        const P t262 = t260 + t261;
        const P t263 = c[24] * t84;
        const P t264 = shuffled<1, 0>(t84);
        const P t265 = P(-c[25], c[25]) * t264;
        const P t266 = t263 + t265;
        const P t267 = shuffled<1, 0>(t189);
        const P t268 = c[26] * t267;
        const P t269 = P(c[27], -c[27]) * t189;
        const P t270 = t268 + t269;
        const P t271 = c[28] * t71;
        const P t272 = shuffled<1, 0>(t71);
        const P t273 = P(c[29], -c[29]) * t272;
        const P t274 = t271 + t273;
        const P t275 = c[30] * t186;
        const P t276 = shuffled<1, 0>(t186);
        const P t277 = P(-c[31], c[31]) * t276;
        const P t278 = t275 + t277;
        const P t279 = c[32] * t85;
        const P t280 = shuffled<1, 0>(t85);
        const P t281 = P(c[33], -c[33]) * t280;
        const P t282 = t279 + t281;
        const P t283 = shuffled<1, 0>(t218);
        const P t284 = c[34] * t283;
        const P t285 = P(c[35], -c[35]) * t218;
        const P t286 = t284 + t285;
        const P t287 = shuffled<1, 0>(t102);
        const P t288 = c[36] * t287;
        const P t289 = P(c[37], -c[37]) * t102;
        const P t290 = t288 + t289;
        const P t291 = joined(t231, t226);
        const P t292 = c[38] * t291;
        const P t293 = shuffled<1, 0>(t291);
        const P t294 = P(c[39], -c[39]) * t293;
        const P t295 = t292 + t294;
        const P t296 = c[40] * t98;
        const P t297 = shuffled<1, 0>(t98);
        const P t298 = P(-c[41], c[41]) * t297;
        const P t299 = t296 + t298;
        const P t300 = c[42] * t215;
        const P t301 = shuffled<1, 0>(t215);
        const P t302 = P(-c[43], c[43]) * t301;
        const P t303 = t300 + t302;
        const P t304 = P(-c[44], c[44]) * t88;
        const P t305 = shuffled<1, 0>(t88);
        const P t306 = c[45] * t305;
        const P t307 = t304 + t306;
        const P t308 = shuffled<1, 0>(t184);
        const P t309 = c[46] * t308;
        const P t310 = P(c[47], -c[47]) * t184;
        const P t311 = t309 + t310;
        const P t312 = shuffled<0, 2>(t266, t282);
        // spectrum block of 5, multiplier 3
        const P t313 = c[1] * t312;
        const V t314 = part<0>(t313);
        const V t315 = part<0>(t299);
        const V t316 = c[2] * t315;
        const V t317 = t314 - t316;
        const P t318 = c[2] * t312;
        const V t319 = part<0>(t318);
        const V t320 = t233 - t319;
        const P t321 = shuffled<0, 2>(t286, t307);
        const P t322 = shuffled<0, 2>(t245, t241);
        // complex block of 5, multiplier 3
        const P t323 = t321 + t322;
        const V t324 = part<0>(t254);
        const P t325 = c[1] * t323;
        const V t326 = part<0>(t325);
        const V t327 = t324 - t326;
        const P t328 = shuffled<0, 2>(t278, t258);
        const P t329 = shuffled<0, 2>(t311, t290);
        const P t330 = t328 + t329;
        const P t331 = c[2] * t323;
        const V t332 = part<0>(t331);
        const V t333 = part<0>(t330);
        const V t334 = c[1] * t333;
        const V t335 = t332 + t334;
        const P t336 = shuffled<1, 3>(t286, t241);
        const P t337 = shuffled<1, 3>(t245, t307);
        const P t338 = t336 - t337;
        const P t339 = t337 + t336;
        const P t340 = shuffled<0, 3>(t322, t321);
        const P t341 = shuffled<0, 3>(t321, t322);
        const P t342 = t340 - t341;
        const P t343 = shuffled<1, 3>(t278, t258);
        const P t344 = shuffled<1, 3>(t311, t290);
        const P t345 = flipped<1, 0>(t344);
        const P t346 = t343 + t345;
        const P t347 = flipped<0, 1>(t343);
        const P t348 = t344 + t347;
        const P t349 = t328 - t329;
        const P t350 = flipped<0, 1>(t346);
        const P t351 = t338 + t350;
        const P t352 = flipped<1, 0>(t323);
        const P t353 = t352 + t330;
        const P t354 = shuffled<1, 3>(t254, t274);
        const P t355 = t351 + t354;
        const P t356 = shuffled<0, 2>(t254, t274);
        const P t357 = flipped<0, 1>(t356);
        const P t358 = t353 + t357;
        const P t359 = c[1] * t338;
        const P t360 = P(-c[2], c[2]) * t346;
        const P t361 = t359 + t360;
        const P t362 = t361 + t354;
        const V t363 = part<1>(t325);
        const V t364 = part<1>(t330);
        // complex block of 5, multiplier 3
        const V t365 = c[2] * t364;
        const V t366 = t363 - t365;
        const P t367 = joined(t327, t366);
        // complex block of 5, multiplier 3
        const V t368 = c[2] * t333;
        const V t369 = part<0>(t274);
        const P t370 = joined(t368, t369);
        const P t371 = t367 - t370;
        const P t372 = c[3] * t339;
        const P t373 = P(-c[4], c[4]) * t348;
        const P t374 = t372 + t373;
        const P t375 = c[3] * t342;
        const P t376 = c[4] * t349;
        const P t377 = t375 - t376;
        const P t378 = t362 + t377;
        const P t379 = flipped<1, 0>(t374);
        const P t380 = t371 + t379;
        const P t381 = t362 - t377;
        const P t382 = t371 - t379;
        const P t383 = c[2] * t338;
        const P t384 = t354 - t383;
        const P t385 = P(c[1], -c[1]) * t346;
        const P t386 = t384 + t385;
        const V t387 = part<1>(t331);
        // complex block of 5, multiplier 3
        const V t388 = t369 + t387;
        const V t389 = c[1] * t364;
        const P t390 = joined(t335, t389);
        const V t391 = flipped<1>(t388);
        const P t392 = joined(t324, t391);
        // complex block of 5, multiplier 3
        const P t393 = t390 + t392;
        const P t394 = c[3] * t348;
        const P t395 = P(c[4], -c[4]) * t339;
        const P t396 = t394 + t395;
        const P t397 = c[4] * t342;
        const P t398 = c[3] * t349;
        const P t399 = t397 + t398;
        const P t400 = t386 + t399;
        const P t401 = t393 - t396;
        const P t402 = t386 - t399;
        const P t403 = t393 + t396;
        // complex block of 5, multiplier 3
        const P t404 = t303 + t262;
        const P t405 = t303 - t262;
        const P t406 = flipped<1, 0>(t237);
        const P t407 = t406 + t270;
        const P t408 = t270 - t406;
        const P t409 = flipped<0, 1>(t407);
        const P t410 = t404 + t409;
        const P t411 = flipped<1, 0>(t295);
        const P t412 = t410 + t411;
        const P t413 = c[1] * t404;
        const P t414 = P(-c[2], c[2]) * t407;
        const P t415 = t413 + t414;
        const P t416 = t415 + t411;
        const P t417 = c[3] * t405;
        const P t418 = P(c[4], -c[4]) * t408;
        const P t419 = t417 + t418;
        const P t420 = shuffled<1, 0>(t419);
        const P t421 = flipped<1, 0>(t420);
        const P t422 = t416 + t421;
        const P t423 = t416 - t421;
        const P t424 = P(c[2], -c[2]) * t404;
        const P t425 = t295 + t424;
        const P t426 = flipped<1, 0>(t425);
        const P t427 = P(c[1], -c[1]) * t407;
        const P t428 = t426 + t427;
        const P t429 = c[4] * t405;
        const P t430 = P(-c[3], c[3]) * t408;
        const P t431 = t429 + t430;
        const P t432 = shuffled<1, 0>(t431);
        const P t433 = flipped<1, 0>(t432);
        const P t434 = t428 + t433;
        const P t435 = t428 - t433;
        const P t436 = shuffled<0, 2>(t299, t249);
        const P t437 = flipped<0, 1>(t312);
        // spectrum block of 5, multiplier 3
        const P t438 = t436 + t437;
        // spectrum block of 41
        const V t439 = c[49] * t75;
        const P t440 = joined(t233, t439);
        // spectrum block of 5, multiplier 3
        const P t441 = t438 + t440;
        const V t442 = part<1>(t313);
        // spectrum block of 5, multiplier 3
        const V t443 = t439 - t442;
        const P t444 = joined(t317, t443);
        const V t445 = part<0>(t249);
        const V t446 = -c[2] * t445;
        const P t447 = joined(t233, t446);
        // spectrum block of 5, multiplier 3
        const P t448 = t444 + t447;
        const P t449 = shuffled<1, 3>(t266, t282);
        const P t450 = c[3] * t449;
        const P t451 = shuffled<1, 3>(t299, t249);
        const P t452 = c[4] * t451;
        const P t453 = t450 + t452;
        const P t454 = flipped<1, 0>(t453);
        const P t455 = t448 + t454;
        const P t456 = t448 - t454;
        const V t457 = part<1>(t318);
        // spectrum block of 5, multiplier 3
        const V t458 = c[1] * t445;
        const V t459 = t457 + t458;
        const P t460 = joined(t320, t459);
        // spectrum block of 5, multiplier 3
        const V t461 = c[1] * t315;
        const P t462 = joined(t461, t439);
        const P t463 = t460 + t462;
        const P t464 = P(-c[3], c[3]) * t451;
        const P t465 = P(c[4], -c[4]) * t449;
        const P t466 = t464 + t465;
        const P t467 = t463 - t466;
        const P t468 = t463 + t466;
        const P t469 = shuffled<0, 2>(t441, t468);
        const P t470 = shuffled<1, 3>(t441, t468);
        // spectrum block of 2
        const P t471 = t469 + t470;
        const P t472 = t469 - t470;
        const P t473 = shuffled<1, 3>(t358, t403);
        // spectrum block of 2
        const P t474 = t471 + t473;
        const P t475 = t471 - t473;
        const P t476 = shuffled<1, 3>(t355, t402);
        // spectrum block of 2
        const P t477 = t472 - t476;
        const P t478 = t472 + t476;
        const P t479 = shuffled<0, 2>(t412, t435);
        const P t480 = shuffled<0, 2>(t358, t403);
        // mirrored skew block of 4, multiplier 5
        const P t481 = t479 - t480;
        const P t482 = shuffled<1, 3>(t412, t435);
        const P t483 = shuffled<0, 2>(t355, t402);
        const P t484 = t482 + t483;
        const P t485 = t479 + t480;
        const P t486 = c[5] * t481;
        const P t487 = c[5] * t484;
        const P t488 = t486 + t487;
        const P t489 = t483 - t482;
        const P t490 = t486 - t487;
        // spectrum block of 2
        const P t491 = t474 + t485;
        io.out(1, 37, t491);
        const P t492 = t474 - t485;
        io.out(40, 4, t492);
        // spectrum block of 2
        const P t493 = t477 + t488;
        io.out(38, 12, t493);
        const P t494 = t477 - t488;
        io.out(3, 29, t494);
        // spectrum block of 2
        const P t495 = t475 - t489;
        io.out(9, 5, t495);
        const P t496 = t475 + t489;
        io.out(32, 36, t496);
        // spectrum block of 2
        const P t497 = t478 - t490;
        io.out(14, 26, t497);
        const P t498 = t478 + t490;
        io.out(27, 15, t498);
        const P t499 = shuffled<0, 2>(t455, t456);
        const P t500 = shuffled<1, 3>(t455, t456);
        // spectrum block of 2
        const P t501 = t499 + t500;
        const P t502 = t499 - t500;
        const P t503 = shuffled<1, 3>(t380, t382);
        // spectrum block of 2
        const P t504 = t501 + t503;
        const P t505 = t501 - t503;
        const P t506 = shuffled<1, 3>(t378, t381);
        // spectrum block of 2
        const P t507 = t502 - t506;
        const P t508 = t502 + t506;
        const P t509 = shuffled<0, 2>(t422, t423);
        const P t510 = shuffled<0, 2>(t380, t382);
        // mirrored skew block of 4, multiplier 5
        const P t511 = t509 - t510;
        const P t512 = shuffled<1, 3>(t422, t423);
        const P t513 = shuffled<0, 2>(t378, t381);
        const P t514 = t512 + t513;
        const P t515 = t509 + t510;
        const P t516 = c[5] * t511;
        const P t517 = c[5] * t514;
        const P t518 = t516 + t517;
        const P t519 = t513 - t512;
        const P t520 = t516 - t517;
        // spectrum block of 2
        const P t521 = t504 + t515;
        io.out(16, 18, t521);
        const P t522 = t504 - t515;
        io.out(25, 23, t522);
        // spectrum block of 2
        const P t523 = t507 + t518;
        io.out(34, 28, t523);
        const P t524 = t507 - t518;
        io.out(7, 13, t524);
        // spectrum block of 2
        const P t525 = t505 - t519;
        io.out(21, 39, t525);
        const P t526 = t505 + t519;
        io.out(20, 2, t526);
        // spectrum block of 2
        const P t527 = t508 - t520;
        io.out(19, 6, t527);
        const P t528 = t508 + t520;
        io.out(22, 35, t528);
        const V t529 = part<0>(t467);
        const V t530 = part<1>(t467);
        // spectrum block of 2
        const V t531 = t529 + t530;
        const V t532 = t529 - t530;
        const P t533 = joined(t531, t532);
        const P t534 = shuffled<1, 3>(t401, t400);
        const P t535 = flipped<0, 1>(t534);
        // spectrum block of 2
        const P t536 = t533 + t535;
        const P t537 = t533 - t535;
        const V t538 = part<0>(t434);
        const V t539 = part<0>(t401);
        // mirrored skew block of 4, multiplier 5
        const V t540 = t538 - t539;
        const V t541 = part<1>(t434);
        const V t542 = part<0>(t400);
        const V t543 = t541 + t542;
        const V t544 = t538 + t539;
        const V t545 = c[5] * t540;
        const V t546 = c[5] * t543;
        const V t547 = t545 + t546;
        const V t548 = t542 - t541;
        const V t549 = t545 - t546;
        const P t550 = joined(t544, t547);
        // spectrum block of 2
        const P t551 = t536 + t550;
        io.out(10, 11, t551);
        const P t552 = t536 - t550;
        io.out(31, 30, t552);
        const P t553 = joined(t548, t549);
        // spectrum block of 2
        const P t554 = t537 - t553;
        io.out(8, 17, t554);
        const P t555 = t537 + t553;
        io.out(33, 24, t555);
        // spectrum block of 41
        const V t556 = x0r + t74;
        io.out(0, t556);
    }
};

}  // namespace zulg
