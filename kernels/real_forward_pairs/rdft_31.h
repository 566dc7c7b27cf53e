// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 31.
// Forward DFT of 31 real points, Rader 3, 2, 5; two lanes to a register.
// 98 sums, 64 differences, 99 products of registers, which do the 539 steps of the graph, those with
// `scale` included; 113 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<31> {
    static constexpr int steps = 539;  // with `scale`
    static constexpr double inverseRoot = 0.1796053020267749;  // 1/sqrt(31), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.03988273291964531,  // c[6]: Q[1] of 31
        0.3690354256607867,  // c[7]: -P[1] of 31
        0.3711833750943932,  // c[8]: P[2] of 31
        0.0008245188371257438,  // c[9]: -Q[2] of 31
        0.31134062892750347,  // c[10]: P[3] of 31
        0.20210094150400285,  // c[11]: -Q[3] of 31
        0.057732967694591485,  // c[12]: P[4] of 31
        0.36666699090448956,  // c[13]: Q[4] of 31
        0.30349444463155195,  // c[14]: P[6] of 31
        0.21370283071490567,  // c[15]: -Q[6] of 31
        0.031416009621091305,  // c[16]: P[7] of 31
        0.36985241937462743,  // c[17]: Q[7] of 31
        0.22434412781271781,  // c[18]: -P[8] of 31
        0.2957152178933792,  // c[19]: Q[8] of 31
        0.35029620511956006,  // c[20]: Q[9] of 31
        0.12276133942171241,  // c[21]: P[9] of 31
        0.05080100546858957,  // c[22]: Q[11] of 31
        0.3676914951710987,  // c[23]: P[11] of 31
        0.127938670558679,  // c[24]: Q[12] of 31
        0.3484386235098738,  // c[25]: P[12] of 31
        0.0592131223973046,  // c[26]: -P[13] of 31
        0.36643087194413576,  // c[27]: -Q[13] of 31
        0.1853625778087589,  // c[28]: -P[14] of 31
        0.3215874570406464,  // c[29]: Q[14] of 31
        0.03333333333333333,  // c[30]: 1/30
        0.3417205692768941,  // c[31]: P[10] of 31
        0.26685240283098827,  // c[32]: P[5] of 31
        0.1449304326594425,  // c[33]: Q[10] of 31
        0.2580069240952765,  // c[34]: -Q[5] of 31
        0.1855921454276674,  // c[35]: -beta of 31
        0.1255134364645471,  // c[36]: sin 2 pi 1/3 times Q[10] of 31
        0.23110095991255428,  // c[37]: sin 2 pi 1/3 times P[5] of 31
        0.2959386939894704,  // c[38]: sin 2 pi 1/3 times P[10] of 31
        0.2234405506187928,  // c[39]: sin 2 pi 1/3 times -Q[5] of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x25_24 = io.in(25, 24);
        const P x5_11 = io.in(5, 11);
        // real block of 3
        const P t0 = x25_24 + x5_11;
        const P t1 = x25_24 - x5_11;
        const P x1_27 = io.in(1, 27);
        const P t2 = t0 + x1_27;
        const P t3 = c[4] * t0;
        const P t4 = x1_27 - t3;
        const P x28_12 = io.in(28, 12);
        const P x18_21 = io.in(18, 21);
        // real block of 3
        const P t5 = x28_12 + x18_21;
        const P t6 = x28_12 - x18_21;
        const P x16_29 = io.in(16, 29);
        const P t7 = t5 + x16_29;
        const P t8 = c[4] * t5;
        const P t9 = x16_29 - t8;
        const P x14_6 = io.in(14, 6);
        const P x9_26 = io.in(9, 26);
        // real block of 3
        const P t10 = x14_6 + x9_26;
        const P t11 = x14_6 - x9_26;
        const P x8_30 = io.in(8, 30);
        const P t12 = t10 + x8_30;
        const P t13 = c[4] * t10;
        const P t14 = x8_30 - t13;
        const P x7_3 = io.in(7, 3);
        const P x20_13 = io.in(20, 13);
        // real block of 3
        const P t15 = x7_3 + x20_13;
        const P t16 = x7_3 - x20_13;
        const P x4_15 = io.in(4, 15);
        const P t17 = t15 + x4_15;
        const P t18 = c[4] * t15;
        const P t19 = x4_15 - t18;
        const P x19_17 = io.in(19, 17);
        const P x10_22 = io.in(10, 22);
        // real block of 3
        const P t20 = x19_17 + x10_22;
        const P t21 = x19_17 - x10_22;
        const P x2_23 = io.in(2, 23);
        const P t22 = t20 + x2_23;
        const P t23 = c[4] * t20;
        const P t24 = x2_23 - t23;
        const P t25 = shuffled<0, 2>(t2, t7);
        const P t26 = shuffled<1, 3>(t12, t17);
        // real block of 2
        const P t27 = t25 + t26;
        const P t28 = t25 - t26;
        const P t29 = shuffled<0, 2>(t12, t17);
        const P t30 = shuffled<1, 3>(t22, t2);
        // real block of 2
        const P t31 = t29 + t30;
        const P t32 = t29 - t30;
        const V t33 = part<0>(t22);
        const V t34 = part<1>(t7);
        // real block of 2
        const V t35 = t33 + t34;
        const V t36 = t33 - t34;
        const P t37 = shuffled<1, 3>(t27, t28);
        const P t38 = joined(t35, t36);
        // real block of 5
        const P t39 = t37 + t38;
        const P t40 = t37 - t38;
        const P t41 = shuffled<1, 3>(t31, t32);
        const P t42 = shuffled<0, 2>(t31, t32);
        const P t43 = t41 + t42;
        const P t44 = t41 - t42;
        const P t45 = t39 + t43;
        const P t46 = shuffled<0, 2>(t27, t28);
        const P t47 = t45 + t46;
        const P t48 = c[0] * t39;
        const P t49 = c[1] * t43;
        const P t50 = t48 - t49;
        const P t51 = t50 + t46;
        const P t52 = c[2] * t44;
        const P t53 = c[3] * t40;
        const P t54 = t52 - t53;
        const P t55 = c[1] * t39;
        const P t56 = t46 - t55;
        const P t57 = c[0] * t43;
        const P t58 = t56 + t57;
        const P t59 = c[2] * t40;
        const P t60 = c[3] * t44;
        const P t61 = t59 + t60;
        // real block of 3
        const P t62 = c[5] * t1;
        const P t63 = shuffled<0, 2>(t4, t62);
        // real block of 3
        const P t64 = c[5] * t11;
        const P t65 = shuffled<1, 3>(t14, t64);
        // complex block of 2
        const P t66 = t63 + t65;
        const P t67 = shuffled<0, 3>(t63, t65);
        const P t68 = shuffled<0, 3>(t65, t63);
        const P t69 = t67 - t68;
        // real block of 3
        const P t70 = c[5] * t6;
        const P t71 = shuffled<0, 2>(t9, t70);
        // real block of 3
        const P t72 = c[5] * t16;
        const P t73 = shuffled<1, 3>(t19, t72);
        // complex block of 2
        const P t74 = t71 + t73;
        const P t75 = shuffled<0, 3>(t71, t73);
        const P t76 = shuffled<0, 3>(t73, t71);
        const P t77 = t75 - t76;
        const P t78 = shuffled<0, 2>(t14, t64);
        // real block of 3
        const P t79 = c[5] * t21;
        const P t80 = shuffled<1, 3>(t24, t79);
        // complex block of 2
        const P t81 = t78 + t80;
        const P t82 = shuffled<0, 3>(t78, t80);
        const P t83 = shuffled<0, 3>(t80, t78);
        const P t84 = t82 - t83;
        const P t85 = shuffled<0, 2>(t19, t72);
        const P t86 = shuffled<1, 3>(t4, t62);
        // complex block of 2
        const P t87 = t85 + t86;
        const P t88 = shuffled<0, 3>(t85, t86);
        const P t89 = shuffled<0, 3>(t86, t85);
        const P t90 = t88 - t89;
        const P t91 = shuffled<0, 2>(t24, t79);
        const P t92 = shuffled<1, 3>(t9, t70);
        // complex block of 2
        const P t93 = t91 + t92;
        const P t94 = shuffled<0, 3>(t91, t92);
        const P t95 = shuffled<0, 3>(t92, t91);
        const P t96 = t94 - t95;
        const P t97 = shuffled<1, 3>(t74, t77);
        const P t98 = shuffled<1, 3>(t93, t96);
        // complex block of 5
        const P t99 = t97 + t98;
        const V t100 = part<1>(t66);
        const P t101 = c[0] * t99;
        const V t102 = part<0>(t101);
        const V t103 = t100 + t102;
        const P t104 = shuffled<1, 3>(t87, t90);
        const P t105 = shuffled<1, 3>(t81, t84);
        const P t106 = t104 + t105;
        const P t107 = c[1] * t99;
        const V t108 = part<0>(t107);
        const V t109 = part<0>(t106);
        const V t110 = c[0] * t109;
        const V t111 = t108 - t110;
        const P t112 = shuffled<0, 2>(t74, t77);
        const P t113 = shuffled<0, 2>(t93, t96);
        const P t114 = t112 + t113;
        const P t115 = t112 - t113;
        const P t116 = shuffled<0, 3>(t98, t97);
        const P t117 = shuffled<0, 3>(t97, t98);
        const P t118 = t116 - t117;
        const P t119 = shuffled<0, 2>(t87, t90);
        const P t120 = shuffled<0, 2>(t81, t84);
        const P t121 = t119 + t120;
        const P t122 = t119 - t120;
        const P t123 = shuffled<0, 3>(t105, t104);
        const P t124 = shuffled<0, 3>(t104, t105);
        const P t125 = t123 - t124;
        const P t126 = t114 + t121;
        const P t127 = t99 + t106;
        const P t128 = shuffled<0, 2>(t66, t69);
        const P t129 = t126 + t128;
        const P t130 = shuffled<1, 3>(t66, t69);
        const P t131 = t127 + t130;
        const P t132 = c[0] * t114;
        const P t133 = c[1] * t121;
        const P t134 = t132 - t133;
        const P t135 = t134 + t128;
        const V t136 = part<1>(t101);
        const V t137 = part<1>(t106);
        // complex block of 5
        const V t138 = c[1] * t137;
        const V t139 = t136 - t138;
        // complex block of 5
        const V t140 = c[1] * t109;
        const P t141 = joined(t140, t139);
        const V t142 = flipped<1>(t103);
        const V t143 = part<1>(t130);
        const P t144 = joined(t142, t143);
        const P t145 = t141 + t144;
        const P t146 = c[3] * t115;
        const P t147 = c[2] * t122;
        const P t148 = t146 - t147;
        const P t149 = c[3] * t118;
        const P t150 = c[2] * t125;
        const P t151 = t149 - t150;
        const P t152 = t135 + t151;
        const P t153 = t145 - t148;
        const P t154 = t135 - t151;
        const P t155 = t145 + t148;
        const P t156 = c[1] * t114;
        const P t157 = t128 - t156;
        const P t158 = c[0] * t121;
        const P t159 = t157 + t158;
        const V t160 = part<1>(t107);
        // complex block of 5
        const V t161 = t143 - t160;
        const P t162 = joined(t111, t161);
        const V t163 = -c[0] * t137;
        const P t164 = joined(t100, t163);
        // complex block of 5
        const P t165 = t162 - t164;
        const P t166 = c[2] * t115;
        const P t167 = c[3] * t122;
        const P t168 = t166 + t167;
        const P t169 = c[2] * t118;
        const P t170 = c[3] * t125;
        const P t171 = t169 + t170;
        const P t172 = t159 + t171;
        const P t173 = t165 - t168;
        const P t174 = t159 - t171;
        const P t175 = t165 + t168;
        const V x0 = io.in(0);
        const V t176 = part<0>(t47);
        // real block of 31
        const V t177 = x0 + t176;
        io.re(0, t177);
        const V t178 = c[30] * t176;
        const V t179 = x0 - t178;
        const P t180 = shuffled<1, 3>(t153, t152);
        const P t181 = c[6] * t180;
        const P t182 = shuffled<1, 0>(t180);
        const P t183 = P(c[7], -c[7]) * t182;
        const P t184 = t181 + t183;
        const P t185 = shuffled<0, 2>(t174, t175);
        const P t186 = c[8] * t185;
        const P t187 = shuffled<1, 0>(t185);
        const P t188 = P(-c[9], c[9]) * t187;
        const P t189 = t186 + t188;
        const P t190 = shuffled<1, 3>(t58, t61);
        const P t191 = c[10] * t190;
        const P t192 = shuffled<1, 0>(t190);
        const P t193 = P(c[11], -c[11]) * t192;
        const P t194 = t191 + t193;
        const P t195 = shuffled<0, 2>(t154, t155);
        const P t196 = c[12] * t195;
        const P t197 = shuffled<1, 0>(t195);
        const P t198 = P(-c[13], c[13]) * t197;
        const P t199 = t196 + t198;
        const P t200 = shuffled<0, 2>(t51, t54);
        const P t201 = c[14] * t200;
        const P t202 = shuffled<1, 0>(t200);
        const P t203 = P(c[15], -c[15]) * t202;
        const P t204 = t201 + t203;
        const P t205 = shuffled<1, 3>(t172, t173);
        const P t206 = c[16] * t205;
        const P t207 = shuffled<1, 0>(t205);
        const P t208 = P(-c[17], c[17]) * t207;
        const P t209 = t206 + t208;
        const P t210 = shuffled<0, 2>(t172, t173);
        const P t211 = P(-c[18], c[18]) * t210;
        const P t212 = shuffled<1, 0>(t210);
        const P t213 = c[19] * t212;
        const P t214 = t211 + t213;
        const P t215 = shuffled<1, 3>(t54, t51);
        const P t216 = c[20] * t215;
        const P t217 = shuffled<1, 0>(t215);
        const P t218 = P(c[21], -c[21]) * t217;
        const P t219 = t216 + t218;
        const P t220 = shuffled<0, 3>(t129, t131);
        const P t221 = P(c[31], c[32]) * t220;
        const P t222 = shuffled<0, 3>(t131, t129);
        const P t223 = P(c[33], c[34]) * t222;
        const P t224 = t221 + t223;
        const P t225 = shuffled<1, 3>(t155, t154);
        const P t226 = c[22] * t225;
        const P t227 = shuffled<1, 0>(t225);
        const P t228 = P(c[23], -c[23]) * t227;
        const P t229 = t226 + t228;
        const P t230 = shuffled<0, 2>(t61, t58);
        const P t231 = c[24] * t230;
        const P t232 = shuffled<1, 0>(t230);
        const P t233 = P(c[25], -c[25]) * t232;
        const P t234 = t231 + t233;
        const P t235 = shuffled<1, 3>(t174, t175);
        const P t236 = P(-c[26], c[26]) * t235;
        const P t237 = shuffled<1, 0>(t235);
        const P t238 = c[27] * t237;
        const P t239 = t236 + t238;
        const P t240 = shuffled<0, 2>(t152, t153);
        const P t241 = P(-c[28], c[28]) * t240;
        const P t242 = shuffled<1, 0>(t240);
        const P t243 = c[29] * t242;
        const P t244 = t241 + t243;
        const V t245 = part<1>(t47);
        const V t246 = c[35] * t245;
        const P t247 = joined(t179, t246);
        // spectrum block of 3, multiplier 2
        const P t248 = t224 + t247;
        const P t249 = P(-c[4], c[4]) * t224;
        const P t250 = flipped<0, 1>(t247);
        const P t251 = t249 + t250;
        const P t252 = P(c[36], c[37]) * t129;
        const P t253 = P(c[38], c[39]) * t131;
        const P t254 = t252 - t253;
        const P t255 = t251 - t254;
        const P t256 = t251 + t254;
        const P t257 = shuffled<1, 2>(t244, t184);
        const P t258 = shuffled<1, 2>(t199, t229);
        const P t259 = flipped<0, 1>(t258);
        // complex block of 3, multiplier 2
        const P t260 = t257 + t259;
        const P t261 = shuffled<0, 3>(t244, t184);
        const P t262 = shuffled<0, 3>(t199, t229);
        const P t263 = t261 + t262;
        const P t264 = flipped<1, 0>(t257);
        const P t265 = t264 + t258;
        const P t266 = t261 - t262;
        const P t267 = flipped<1, 0>(t260);
        const P t268 = shuffled<1, 2>(t204, t219);
        const P t269 = t267 + t268;
        const P t270 = shuffled<0, 3>(t204, t219);
        const P t271 = t263 + t270;
        const P t272 = P(c[4], -c[4]) * t260;
        const P t273 = t268 + t272;
        const P t274 = c[4] * t263;
        const P t275 = t270 - t274;
        const P t276 = c[5] * t266;
        const P t277 = t273 + t276;
        const P t278 = c[5] * t265;
        const P t279 = t275 - t278;
        const P t280 = t273 - t276;
        const P t281 = t275 + t278;
        const P t282 = shuffled<1, 2>(t214, t239);
        const P t283 = shuffled<1, 2>(t189, t209);
        const P t284 = flipped<0, 1>(t283);
        // complex block of 3, multiplier 2
        const P t285 = t282 + t284;
        const P t286 = shuffled<0, 3>(t214, t209);
        const P t287 = shuffled<0, 3>(t189, t239);
        const P t288 = flipped<0, 1>(t287);
        const P t289 = t286 + t288;
        const P t290 = flipped<1, 0>(t282);
        const P t291 = t283 + t290;
        const P t292 = t286 - t288;
        const P t293 = flipped<1, 0>(t285);
        const P t294 = shuffled<1, 2>(t234, t194);
        const P t295 = t293 + t294;
        const P t296 = shuffled<0, 3>(t234, t194);
        const P t297 = t289 + t296;
        const P t298 = P(c[4], -c[4]) * t285;
        const P t299 = t294 + t298;
        const P t300 = c[4] * t289;
        const P t301 = t296 - t300;
        const P t302 = c[5] * t292;
        const P t303 = t299 + t302;
        const P t304 = P(-c[5], c[5]) * t291;
        const P t305 = t301 + t304;
        const P t306 = t299 - t302;
        const P t307 = t301 - t304;
        // spectrum block of 5, multiplier 3
        const P t308 = t271 + t297;
        const P t309 = flipped<0, 1>(t248);
        const P t310 = t308 + t309;
        io.pair(1, t310);
        const P t311 = c[0] * t271;
        const P t312 = c[1] * t297;
        const P t313 = t311 - t312;
        const P t314 = t313 + t309;
        const P t315 = c[3] * t269;
        const P t316 = c[2] * t295;
        const P t317 = t315 + t316;
        const P t318 = t314 - t317;
        io.pair(2, t318);
        const P t319 = t314 + t317;
        io.pair(15, negated<0, 1>(t319));
        const P t320 = P(-c[1], c[1]) * t271;
        const P t321 = t248 + t320;
        const P t322 = c[0] * t297;
        const P t323 = flipped<0, 1>(t321);
        const P t324 = t322 + t323;
        const P t325 = c[2] * t269;
        const P t326 = c[3] * t295;
        const P t327 = t325 - t326;
        const P t328 = t324 - t327;
        io.pair(4, t328);
        const P t329 = t324 + t327;
        io.pair(8, t329);
        const P t330 = shuffled<0, 3>(t281, t279);
        const P t331 = shuffled<0, 3>(t307, t305);
        // spectrum block of 5, multiplier 3
        const P t332 = t330 + t331;
        const P t333 = shuffled<0, 3>(t256, t255);
        const P t334 = t332 + t333;
        const P t335 = c[0] * t330;
        const P t336 = c[1] * t331;
        const P t337 = t335 - t336;
        const P t338 = t337 + t333;
        const P t339 = shuffled<0, 3>(t280, t277);
        const P t340 = c[3] * t339;
        const P t341 = shuffled<0, 3>(t306, t303);
        const P t342 = c[2] * t341;
        const P t343 = t340 + t342;
        const P t344 = t338 - t343;
        const P t345 = t338 + t343;
        const P t346 = c[1] * t330;
        const P t347 = t333 - t346;
        const P t348 = c[0] * t331;
        const P t349 = t347 + t348;
        const P t350 = c[2] * t339;
        const P t351 = c[3] * t341;
        const P t352 = t350 - t351;
        const P t353 = t349 - t352;
        const P t354 = t349 + t352;
        const P t355 = shuffled<0, 3>(t279, t281);
        const P t356 = shuffled<0, 3>(t305, t307);
        // spectrum block of 5, multiplier 3
        const P t357 = t355 + t356;
        const P t358 = shuffled<0, 3>(t255, t256);
        const P t359 = t357 + t358;
        const P t360 = shuffled<0, 3>(t359, t334);
        io.pair(5, t360);
        const P t361 = shuffled<0, 3>(t334, t359);
        io.pair(6, negated<0, 1>(t361));
        const P t362 = c[0] * t355;
        const P t363 = c[1] * t356;
        const P t364 = t362 - t363;
        const P t365 = t364 + t358;
        const P t366 = shuffled<0, 3>(t277, t280);
        const P t367 = c[3] * t366;
        const P t368 = shuffled<0, 3>(t303, t306);
        const P t369 = c[2] * t368;
        const P t370 = t367 + t369;
        const P t371 = t365 - t370;
        const P t372 = shuffled<0, 3>(t371, t344);
        io.pair(10, t372);
        const P t373 = shuffled<0, 3>(t344, t371);
        io.pair(12, negated<0, 1>(t373));
        const P t374 = t365 + t370;
        const P t375 = shuffled<0, 3>(t345, t374);
        io.pair(3, negated<0, 1>(t375));
        const P t376 = shuffled<0, 3>(t374, t345);
        io.pair(13, negated<0, 1>(t376));
        const P t377 = c[1] * t355;
        const P t378 = t358 - t377;
        const P t379 = c[0] * t356;
        const P t380 = t378 + t379;
        const P t381 = c[2] * t366;
        const P t382 = c[3] * t368;
        const P t383 = t381 - t382;
        const P t384 = t380 - t383;
        const P t385 = shuffled<0, 3>(t353, t384);
        io.pair(7, t385);
        const P t386 = shuffled<0, 3>(t384, t353);
        io.pair(11, negated<0, 1>(t386));
        const P t387 = t380 + t383;
        const P t388 = shuffled<0, 3>(t387, t354);
        io.pair(9, t388);
        const P t389 = shuffled<0, 3>(t354, t387);
        io.pair(14, t389);
    }
};

}  // namespace zulg
