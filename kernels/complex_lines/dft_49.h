// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 49.
// Complex DFT of 49 points, twiddled, inner 7, outer 7; two lines of a stage to a register.
// 136 sums, 99 differences, 162 products of registers, which do the 1658 steps of the graph, those with
// `scale` included; 88 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<49> {
    static constexpr int steps = 1658;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.7183493500977276,  // c[6]: cos 2 pi 6/49
        0.6956825506034864,  // c[7]: sin 2 pi 6/49
        0.03205157757165517,  // c[8]: cos 2 pi 12/49
        0.9994862162006879,  // c[9]: sin 2 pi 12/49
        0.8713187041233893,  // c[10]: cos 2 pi 4/49
        0.4907175520039379,  // c[11]: sin 2 pi 4/49
        0.9979453927503363,  // c[12]: -cos 2 pi 24/49
        0.06407021998071293,  // c[13]: sin 2 pi 24/49
        0.9672948630390295,  // c[14]: cos 2 pi 2/49
        0.2536545839095074,  // c[15]: sin 2 pi 2/49
        0.9269167573460217,  // c[16]: cos 2 pi 3/49
        0.37526700487937414,  // c[17]: sin 2 pi 3/49
        0.518392568310525,  // c[18]: cos 2 pi 8/49
        0.8551427630053462,  // c[19]: sin 2 pi 8/49
        0.8014136218679566,  // c[20]: cos 2 pi 5/49
        0.28452758663103245,  // c[21]: cos 2 pi 10/49
        0.598110530491216,  // c[22]: sin 2 pi 5/49
        0.9586678530366606,  // c[23]: sin 2 pi 10/49
        0.3453650544213076,  // c[24]: -cos 2 pi 15/49
        0.8380881048918407,  // c[25]: -cos 2 pi 20/49
        0.9384684220497604,  // c[26]: sin 2 pi 15/49
        0.5455349012105487,  // c[27]: sin 2 pi 20/49
        0.6723008902613168,  // c[28]: -cos 2 pi 18/49
        0.7402779970753155,  // c[29]: sin 2 pi 18/49
        0.6482283953077884,  // c[30]: -sin 2 pi 30/49
        0.7614459583691344,  // c[31]: -cos 2 pi 30/49
        0.9917900138232462,  // c[32]: cos 2 pi 1/49
        0.12787716168450602,  // c[33]: sin 2 pi 1/49
        0.40478334312239383,  // c[34]: cos 2 pi 9/49
        0.9144126230158125,  // c[35]: sin 2 pi 9/49
        0.46253829024083526,  // c[36]: -cos 2 pi 16/49
        0.8865993063730001,  // c[37]: sin 2 pi 16/49
        0.9953791129491982,  // c[38]: -sin 2 pi 36/49
        0.09602302590768176,  // c[39]: -cos 2 pi 36/49
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x7_8 = io.pairs(7, 8);
        const Q x42_43 = io.pairs(42, 43);
        // complex block of 7
        const Q t0 = x7_8 + x42_43;
        const Q t1 = x7_8 - x42_43;
        const Q x35_36 = io.pairs(35, 36);
        const Q x14_15 = io.pairs(14, 15);
        const Q t2 = x35_36 + x14_15;
        const Q t3 = x35_36 - x14_15;
        const Q x28_29 = io.pairs(28, 29);
        const Q x21_22 = io.pairs(21, 22);
        const Q t4 = x28_29 + x21_22;
        const Q t5 = x28_29 - x21_22;
        const Q t6 = t0 + t2;
        const Q t7 = t6 + t4;
        const Q x0_1 = io.pairs(0, 1);
        const Q t8 = t7 + x0_1;
        const Q t9 = c[0] * t0;
        const Q t10 = c[1] * t2;
        const Q t11 = t9 - t10;
        const Q t12 = c[2] * t4;
        const Q t13 = t11 - t12;
        const Q t14 = t13 + x0_1;
        const Q t15 = c[3] * t1;
        const Q t16 = c[4] * t3;
        const Q t17 = t15 - t16;
        const Q t18 = c[5] * t5;
        const Q t19 = t17 - t18;
        const Q t20 = shuffled<1, 0, 3, 2>(t19);
        const Q t21 = flipped<0, 1, 0, 1>(t20);
        const Q t22 = t14 + t21;
        const Q t23 = t14 - t21;
        const Q t24 = c[1] * t0;
        const Q t25 = x0_1 - t24;
        const Q t26 = c[2] * t2;
        const Q t27 = t25 - t26;
        const Q t28 = c[0] * t4;
        const Q t29 = t27 + t28;
        const Q t30 = c[4] * t1;
        const Q t31 = c[5] * t3;
        const Q t32 = t30 + t31;
        const Q t33 = c[3] * t5;
        const Q t34 = t32 + t33;
        const Q t35 = shuffled<1, 0, 3, 2>(t34);
        const Q t36 = flipped<0, 1, 0, 1>(t35);
        const Q t37 = t29 + t36;
        const Q t38 = t29 - t36;
        const Q t39 = c[2] * t0;
        const Q t40 = x0_1 - t39;
        const Q t41 = c[0] * t2;
        const Q t42 = t40 + t41;
        const Q t43 = c[1] * t4;
        const Q t44 = t42 - t43;
        const Q t45 = c[5] * t1;
        const Q t46 = c[3] * t3;
        const Q t47 = t45 + t46;
        const Q t48 = c[4] * t5;
        const Q t49 = t47 - t48;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = flipped<0, 1, 0, 1>(t50);
        const Q t52 = t44 + t51;
        const Q t53 = t44 - t51;
        const Q x9_10 = io.pairs(9, 10);
        const Q x44_45 = io.pairs(44, 45);
        // complex block of 7
        const Q t54 = x9_10 + x44_45;
        const Q t55 = x9_10 - x44_45;
        const Q x37_38 = io.pairs(37, 38);
        const Q x16_17 = io.pairs(16, 17);
        const Q t56 = x37_38 + x16_17;
        const Q t57 = x37_38 - x16_17;
        const Q x30_31 = io.pairs(30, 31);
        const Q x23_24 = io.pairs(23, 24);
        const Q t58 = x30_31 + x23_24;
        const Q t59 = x30_31 - x23_24;
        const Q t60 = t54 + t56;
        const Q t61 = t60 + t58;
        const Q x2_3 = io.pairs(2, 3);
        const Q t62 = t61 + x2_3;
        const Q t63 = c[0] * t54;
        const Q t64 = c[1] * t56;
        const Q t65 = t63 - t64;
        const Q t66 = c[2] * t58;
        const Q t67 = t65 - t66;
        const Q t68 = t67 + x2_3;
        const Q t69 = c[3] * t55;
        const Q t70 = c[4] * t57;
        const Q t71 = t69 - t70;
        const Q t72 = c[5] * t59;
        const Q t73 = t71 - t72;
        const Q t74 = shuffled<1, 0, 3, 2>(t73);
        const Q t75 = flipped<0, 1, 0, 1>(t74);
        const Q t76 = t68 + t75;
        const Q t77 = t68 - t75;
        const Q t78 = c[1] * t54;
        const Q t79 = x2_3 - t78;
        const Q t80 = c[2] * t56;
        const Q t81 = t79 - t80;
        const Q t82 = c[0] * t58;
        const Q t83 = t81 + t82;
        const Q t84 = c[4] * t55;
        const Q t85 = c[5] * t57;
        const Q t86 = t84 + t85;
        const Q t87 = c[3] * t59;
        const Q t88 = t86 + t87;
        const Q t89 = shuffled<1, 0, 3, 2>(t88);
        const Q t90 = flipped<0, 1, 0, 1>(t89);
        const Q t91 = t83 + t90;
        const Q t92 = t83 - t90;
        const Q t93 = c[2] * t54;
        const Q t94 = x2_3 - t93;
        const Q t95 = c[0] * t56;
        const Q t96 = t94 + t95;
        const Q t97 = c[1] * t58;
        const Q t98 = t96 - t97;
        const Q t99 = c[5] * t55;
        const Q t100 = c[3] * t57;
        const Q t101 = t99 + t100;
        const Q t102 = c[4] * t59;
        const Q t103 = t101 - t102;
        const Q t104 = shuffled<1, 0, 3, 2>(t103);
        const Q t105 = flipped<0, 1, 0, 1>(t104);
        const Q t106 = t98 + t105;
        const Q t107 = t98 - t105;
        const Q x11_12 = io.pairs(11, 12);
        const Q x46_47 = io.pairs(46, 47);
        // complex block of 7
        const Q t108 = x11_12 + x46_47;
        const Q t109 = x11_12 - x46_47;
        const Q x39_40 = io.pairs(39, 40);
        const Q x18_19 = io.pairs(18, 19);
        const Q t110 = x39_40 + x18_19;
        const Q t111 = x39_40 - x18_19;
        const Q x32_33 = io.pairs(32, 33);
        const Q x25_26 = io.pairs(25, 26);
        const Q t112 = x32_33 + x25_26;
        const Q t113 = x32_33 - x25_26;
        const Q t114 = t108 + t110;
        const Q t115 = t114 + t112;
        const Q x4_5 = io.pairs(4, 5);
        const Q t116 = t115 + x4_5;
        const Q t117 = c[0] * t108;
        const Q t118 = c[1] * t110;
        const Q t119 = t117 - t118;
        const Q t120 = c[2] * t112;
        const Q t121 = t119 - t120;
        const Q t122 = t121 + x4_5;
        const Q t123 = c[3] * t109;
        const Q t124 = c[4] * t111;
        const Q t125 = t123 - t124;
        const Q t126 = c[5] * t113;
        const Q t127 = t125 - t126;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = flipped<0, 1, 0, 1>(t128);
        const Q t130 = t122 + t129;
        const Q t131 = t122 - t129;
        const Q t132 = c[1] * t108;
        const Q t133 = x4_5 - t132;
        const Q t134 = c[2] * t110;
        const Q t135 = t133 - t134;
        const Q t136 = c[0] * t112;
        const Q t137 = t135 + t136;
        const Q t138 = c[4] * t109;
        const Q t139 = c[5] * t111;
        const Q t140 = t138 + t139;
        const Q t141 = c[3] * t113;
        const Q t142 = t140 + t141;
        const Q t143 = shuffled<1, 0, 3, 2>(t142);
        const Q t144 = flipped<0, 1, 0, 1>(t143);
        const Q t145 = t137 + t144;
        const Q t146 = t137 - t144;
        const Q t147 = c[2] * t108;
        const Q t148 = x4_5 - t147;
        const Q t149 = c[0] * t110;
        const Q t150 = t148 + t149;
        const Q t151 = c[1] * t112;
        const Q t152 = t150 - t151;
        const Q t153 = c[5] * t109;
        const Q t154 = c[3] * t111;
        const Q t155 = t153 + t154;
        const Q t156 = c[4] * t113;
        const Q t157 = t155 - t156;
        const Q t158 = shuffled<1, 0, 3, 2>(t157);
        const Q t159 = flipped<0, 1, 0, 1>(t158);
        const Q t160 = t152 + t159;
        const Q t161 = t152 - t159;
        const P x13 = io.pair(13);
        const P x48 = io.pair(48);
        // complex block of 7
        const P t162 = x13 + x48;
        const P x41 = io.pair(41);
        const P t163 = part<1>(t116);
        const Q t164 = joined(x41, t163);
        const P x20 = io.pair(20);
        const P t165 = part<0>(t62);
        const Q t166 = joined(x20, t165);
        const Q t167 = t164 + t166;
        const P t168 = part<0>(t167);
        const P t169 = t162 + t168;
        const P x34 = io.pair(34);
        const P t170 = part<0>(t116);
        const Q t171 = joined(x34, t170);
        const P x27 = io.pair(27);
        const P t172 = part<1>(t62);
        const Q t173 = joined(x27, t172);
        const Q t174 = t171 + t173;
        const V t175 = part<0>(t169);
        const P t176 = part<0>(t174);
        const V t177 = part<0>(t176);
        const V t178 = t175 + t177;
        const V t179 = part<1>(t169);
        const V t180 = part<1>(t176);
        const V t181 = t179 + t180;
        const P x6 = io.pair(6);
        const V t182 = part<0>(x6);
        const V t183 = t178 + t182;
        const V t184 = part<1>(x6);
        const V t185 = t181 + t184;
        const P t186 = part<1>(t8);
        const V t187 = part<0>(t186);
        // complex block of 7
        const V t188 = t187 + t183;
        const V t189 = part<1>(t186);
        const V t190 = t189 + t185;
        const Q t191 = joined(x13, t186);
        const P t192 = joined(t183, t185);
        const Q t193 = joined(x48, t192);
        // complex block of 7
        const Q t194 = t191 - t193;
        const Q t195 = t164 - t166;
        const Q t196 = t171 - t173;
        const P t197 = joined(t188, t190);
        const P t198 = part<1>(t167);
        // complex block of 7
        const P t199 = t197 + t198;
        const P t200 = part<1>(t174);
        const P t201 = t199 + t200;
        const P t202 = part<0>(t8);
        const P t203 = t201 + t202;
        io.pair(0, t203);
        const Q t204 = joined(t162, t197);
        // complex block of 7
        const Q t205 = c[0] * t204;
        const Q t206 = c[1] * t167;
        const Q t207 = t205 - t206;
        const Q t208 = c[2] * t174;
        const Q t209 = t207 - t208;
        const Q t210 = joined(x6, t202);
        const Q t211 = t209 + t210;
        const Q t212 = c[3] * t194;
        const Q t213 = c[4] * t195;
        const Q t214 = t212 - t213;
        const Q t215 = c[5] * t196;
        const Q t216 = t214 - t215;
        const Q t217 = shuffled<1, 0, 3, 2>(t216);
        const Q t218 = flipped<0, 1, 0, 1>(t217);
        const Q t219 = t211 + t218;
        const P t220 = part<1>(t219);
        io.pair(7, t220);
        const Q t221 = t211 - t218;
        const P t222 = part<1>(t221);
        io.pair(42, t222);
        const Q t223 = c[1] * t204;
        const Q t224 = t210 - t223;
        const Q t225 = c[2] * t167;
        const Q t226 = t224 - t225;
        const Q t227 = c[0] * t174;
        const Q t228 = t226 + t227;
        const Q t229 = c[4] * t194;
        const Q t230 = c[5] * t195;
        const Q t231 = t229 + t230;
        const Q t232 = c[3] * t196;
        const Q t233 = t231 + t232;
        const Q t234 = shuffled<1, 0, 3, 2>(t233);
        const Q t235 = flipped<0, 1, 0, 1>(t234);
        const Q t236 = t228 + t235;
        const P t237 = part<1>(t236);
        io.pair(14, t237);
        const Q t238 = t228 - t235;
        const P t239 = part<1>(t238);
        io.pair(35, t239);
        const Q t240 = c[2] * t204;
        const Q t241 = t210 - t240;
        const Q t242 = c[0] * t167;
        const Q t243 = t241 + t242;
        const Q t244 = c[1] * t174;
        const Q t245 = t243 - t244;
        const Q t246 = c[5] * t194;
        const Q t247 = c[3] * t195;
        const Q t248 = t246 + t247;
        const Q t249 = c[4] * t196;
        const Q t250 = t248 - t249;
        const Q t251 = shuffled<1, 0, 3, 2>(t250);
        const Q t252 = flipped<0, 1, 0, 1>(t251);
        const Q t253 = t245 + t252;
        const P t254 = part<1>(t253);
        io.pair(21, t254);
        const Q t255 = t245 - t252;
        const P t256 = part<1>(t255);
        io.pair(28, t256);
        const Q t257 = shuffled<2, 3, 6, 7>(t22, t37);
        // complex block of 49
        const Q t258 = Q(c[32], c[32], c[14], c[14]) * t257;
        const Q t259 = shuffled<1, 0, 3, 2>(t257);
        const Q t260 = Q(c[33], -c[33], c[15], -c[15]) * t259;
        const Q t261 = t258 + t260;
        const Q t262 = shuffled<0, 1, 4, 5>(t76, t91);
        const Q t263 = Q(c[14], c[14], c[10], c[10]) * t262;
        const Q t264 = shuffled<1, 0, 3, 2>(t262);
        const Q t265 = Q(c[15], -c[15], c[11], -c[11]) * t264;
        const Q t266 = t263 + t265;
        const Q t267 = shuffled<2, 3, 6, 7>(t76, t91);
        const Q t268 = Q(c[16], c[16], c[6], c[6]) * t267;
        const Q t269 = shuffled<1, 0, 3, 2>(t267);
        const Q t270 = Q(c[17], -c[17], c[7], -c[7]) * t269;
        const Q t271 = t268 + t270;
        const Q t272 = shuffled<0, 1, 4, 5>(t130, t145);
        const Q t273 = Q(c[10], c[10], c[18], c[18]) * t272;
        const Q t274 = shuffled<1, 0, 3, 2>(t272);
        const Q t275 = Q(c[11], -c[11], c[19], -c[19]) * t274;
        const Q t276 = t273 + t275;
        const Q t277 = shuffled<2, 3, 6, 7>(t130, t145);
        const Q t278 = Q(c[20], c[20], c[21], c[21]) * t277;
        const Q t279 = shuffled<1, 0, 3, 2>(t277);
        const Q t280 = Q(c[22], -c[22], c[23], -c[23]) * t279;
        const Q t281 = t278 + t280;
        const Q t282 = shuffled<0, 1, 4, 5>(t219, t236);
        const Q t283 = Q(c[6], c[6], c[8], c[8]) * t282;
        const Q t284 = shuffled<1, 0, 3, 2>(t282);
        const Q t285 = Q(c[7], -c[7], c[9], -c[9]) * t284;
        const Q t286 = t283 + t285;
        // complex block of 7
        const Q t287 = t261 + t286;
        const Q t288 = t261 - t286;
        const Q t289 = t281 + t266;
        const Q t290 = t281 - t266;
        const Q t291 = t276 + t271;
        const Q t292 = t276 - t271;
        const Q t293 = t287 + t289;
        const Q t294 = t293 + t291;
        const Q t295 = shuffled<0, 1, 4, 5>(t22, t37);
        const Q t296 = t294 + t295;
        io.pairs(1, 2, t296);
        const Q t297 = c[0] * t287;
        const Q t298 = c[1] * t289;
        const Q t299 = t297 - t298;
        const Q t300 = c[2] * t291;
        const Q t301 = t299 - t300;
        const Q t302 = t301 + t295;
        const Q t303 = c[3] * t288;
        const Q t304 = c[4] * t290;
        const Q t305 = t303 - t304;
        const Q t306 = c[5] * t292;
        const Q t307 = t305 - t306;
        const Q t308 = shuffled<1, 0, 3, 2>(t307);
        const Q t309 = flipped<0, 1, 0, 1>(t308);
        const Q t310 = t302 + t309;
        io.pairs(8, 9, t310);
        const Q t311 = t302 - t309;
        io.pairs(43, 44, t311);
        const Q t312 = c[1] * t287;
        const Q t313 = t295 - t312;
        const Q t314 = c[2] * t289;
        const Q t315 = t313 - t314;
        const Q t316 = c[0] * t291;
        const Q t317 = t315 + t316;
        const Q t318 = c[4] * t288;
        const Q t319 = c[5] * t290;
        const Q t320 = t318 + t319;
        const Q t321 = c[3] * t292;
        const Q t322 = t320 + t321;
        const Q t323 = shuffled<1, 0, 3, 2>(t322);
        const Q t324 = flipped<0, 1, 0, 1>(t323);
        const Q t325 = t317 + t324;
        io.pairs(15, 16, t325);
        const Q t326 = t317 - t324;
        io.pairs(36, 37, t326);
        const Q t327 = c[2] * t287;
        const Q t328 = t295 - t327;
        const Q t329 = c[0] * t289;
        const Q t330 = t328 + t329;
        const Q t331 = c[1] * t291;
        const Q t332 = t330 - t331;
        const Q t333 = c[5] * t288;
        const Q t334 = c[3] * t290;
        const Q t335 = t333 + t334;
        const Q t336 = c[4] * t292;
        const Q t337 = t335 - t336;
        const Q t338 = shuffled<1, 0, 3, 2>(t337);
        const Q t339 = flipped<0, 1, 0, 1>(t338);
        const Q t340 = t332 + t339;
        io.pairs(22, 23, t340);
        const Q t341 = t332 - t339;
        io.pairs(29, 30, t341);
        const Q t342 = shuffled<2, 3, 6, 7>(t52, t53);
        // complex block of 49
        const Q t343 = Q(c[16], c[16], c[10], c[10]) * t342;
        const Q t344 = shuffled<1, 0, 3, 2>(t342);
        const Q t345 = Q(c[17], -c[17], c[11], -c[11]) * t344;
        const Q t346 = t343 + t345;
        const Q t347 = shuffled<0, 1, 4, 5>(t106, t107);
        const Q t348 = Q(c[6], c[6], c[18], c[18]) * t347;
        const Q t349 = shuffled<1, 0, 3, 2>(t347);
        const Q t350 = Q(c[7], -c[7], c[19], -c[19]) * t349;
        const Q t351 = t348 + t350;
        const Q t352 = shuffled<2, 3, 6, 7>(t106, t107);
        const Q t353 = Q(c[34], c[34], c[8], c[8]) * t352;
        const Q t354 = shuffled<1, 0, 3, 2>(t352);
        const Q t355 = Q(c[35], -c[35], c[9], -c[9]) * t354;
        const Q t356 = t353 + t355;
        const P t357 = part<0>(t160);
        const P t358 = shuffled<1, 0>(t357);
        const P t359 = part<0>(t161);
        const Q t360 = joined(t358, t359);
        const Q t361 = Q(c[9], -c[9], -c[36], c[36]) * t360;
        const Q t362 = shuffled<1, 0, 3, 2>(t360);
        const Q t363 = Q(c[8], c[8], c[37], c[37]) * t362;
        const Q t364 = t361 + t363;
        const Q t365 = shuffled<2, 3, 6, 7>(t160, t161);
        const Q t366 = Q(-c[24], c[24], -c[25], c[25]) * t365;
        const Q t367 = shuffled<1, 0, 3, 2>(t365);
        const Q t368 = Q(c[26], c[26], c[27], c[27]) * t367;
        const Q t369 = t366 + t368;
        const Q t370 = shuffled<0, 1, 4, 5>(t253, t255);
        const Q t371 = Q(-c[28], c[28], -c[12], c[12]) * t370;
        const Q t372 = shuffled<1, 0, 3, 2>(t370);
        const Q t373 = Q(c[29], c[29], c[13], c[13]) * t372;
        const Q t374 = t371 + t373;
        const Q t375 = flipped<0, 1, 0, 1>(t374);
        // complex block of 7
        const Q t376 = t346 + t375;
        const Q t377 = t346 - t375;
        const Q t378 = flipped<0, 1, 0, 1>(t369);
        const Q t379 = t351 + t378;
        const Q t380 = flipped<1, 0, 1, 0>(t351);
        const Q t381 = t369 + t380;
        const Q t382 = flipped<0, 0, 0, 1>(t364);
        const Q t383 = t356 + t382;
        const Q t384 = flipped<0, 0, 0, 1>(t356);
        const Q t385 = t364 - t384;
        const Q t386 = t376 + t379;
        const Q t387 = t386 + t383;
        const Q t388 = shuffled<0, 1, 4, 5>(t52, t53);
        const Q t389 = t387 + t388;
        io.pairs(3, 4, t389);
        const Q t390 = c[0] * t376;
        const Q t391 = c[1] * t379;
        const Q t392 = t390 - t391;
        const Q t393 = c[2] * t383;
        const Q t394 = t392 - t393;
        const Q t395 = t394 + t388;
        const Q t396 = c[3] * t377;
        const Q t397 = Q(-c[4], c[4], -c[4], c[4]) * t381;
        const Q t398 = t396 + t397;
        const Q t399 = Q(c[5], c[5], c[5], -c[5]) * t385;
        const Q t400 = t398 - t399;
        const Q t401 = shuffled<1, 0, 3, 2>(t400);
        const Q t402 = flipped<0, 1, 0, 1>(t401);
        const Q t403 = t395 + t402;
        io.pairs(10, 11, t403);
        const Q t404 = t395 - t402;
        io.pairs(45, 46, t404);
        const Q t405 = c[1] * t376;
        const Q t406 = t388 - t405;
        const Q t407 = c[2] * t379;
        const Q t408 = t406 - t407;
        const Q t409 = c[0] * t383;
        const Q t410 = t408 + t409;
        const Q t411 = c[4] * t377;
        const Q t412 = Q(c[5], -c[5], c[5], -c[5]) * t381;
        const Q t413 = t411 + t412;
        const Q t414 = Q(c[3], c[3], c[3], -c[3]) * t385;
        const Q t415 = t413 + t414;
        const Q t416 = shuffled<1, 0, 3, 2>(t415);
        const Q t417 = flipped<0, 1, 0, 1>(t416);
        const Q t418 = t410 + t417;
        io.pairs(17, 18, t418);
        const Q t419 = t410 - t417;
        io.pairs(38, 39, t419);
        const Q t420 = c[2] * t376;
        const Q t421 = t388 - t420;
        const Q t422 = c[0] * t379;
        const Q t423 = t421 + t422;
        const Q t424 = c[1] * t383;
        const Q t425 = t423 - t424;
        const Q t426 = c[5] * t377;
        const Q t427 = Q(c[3], -c[3], c[3], -c[3]) * t381;
        const Q t428 = t426 + t427;
        const Q t429 = Q(c[4], c[4], c[4], -c[4]) * t385;
        const Q t430 = t428 - t429;
        const Q t431 = shuffled<1, 0, 3, 2>(t430);
        const Q t432 = flipped<0, 1, 0, 1>(t431);
        const Q t433 = t425 + t432;
        io.pairs(24, 25, t433);
        const Q t434 = t425 - t432;
        io.pairs(31, 32, t434);
        const Q t435 = shuffled<2, 3, 6, 7>(t38, t23);
        // complex block of 49
        const Q t436 = Q(c[20], c[20], c[6], c[6]) * t435;
        const Q t437 = shuffled<1, 0, 3, 2>(t435);
        const Q t438 = Q(c[22], -c[22], c[7], -c[7]) * t437;
        const Q t439 = t436 + t438;
        const Q t440 = shuffled<0, 1, 4, 5>(t92, t77);
        const Q t441 = Q(c[21], c[21], c[8], c[8]) * t440;
        const Q t442 = shuffled<1, 0, 3, 2>(t440);
        const Q t443 = Q(c[23], -c[23], c[9], -c[9]) * t442;
        const Q t444 = t441 + t443;
        const Q t445 = shuffled<2, 3, 6, 7>(t92, t77);
        const Q t446 = Q(-c[24], c[24], -c[28], c[28]) * t445;
        const Q t447 = shuffled<1, 0, 3, 2>(t445);
        const Q t448 = Q(c[26], c[26], c[29], c[29]) * t447;
        const Q t449 = t446 + t448;
        const Q t450 = shuffled<0, 1, 4, 5>(t146, t131);
        const Q t451 = Q(-c[25], c[25], -c[12], c[12]) * t450;
        const Q t452 = shuffled<1, 0, 3, 2>(t450);
        const Q t453 = Q(c[27], c[27], c[13], c[13]) * t452;
        const Q t454 = t451 + t453;
        const Q t455 = shuffled<2, 3, 6, 7>(t146, t131);
        const Q t456 = shuffled<1, 0, 3, 2>(t455);
        const Q t457 = Q(c[13], c[13], c[30], c[30]) * t456;
        const Q t458 = Q(c[12], -c[12], c[31], -c[31]) * t455;
        const Q t459 = t457 + t458;
        const Q t460 = shuffled<0, 1, 4, 5>(t238, t221);
        const Q t461 = shuffled<1, 0, 3, 2>(t460);
        const Q t462 = Q(c[30], c[30], c[38], c[38]) * t461;
        const Q t463 = Q(c[31], -c[31], c[39], -c[39]) * t460;
        const Q t464 = t462 + t463;
        const Q t465 = flipped<1, 0, 1, 0>(t464);
        // complex block of 7
        const Q t466 = t439 + t465;
        const Q t467 = t439 - t465;
        const Q t468 = flipped<1, 0, 1, 0>(t459);
        const Q t469 = t468 + t444;
        const Q t470 = flipped<0, 1, 0, 1>(t444);
        const Q t471 = t459 + t470;
        const Q t472 = t454 + t449;
        const Q t473 = shuffled<0, 5, 2, 7>(t454, t449);
        const Q t474 = shuffled<0, 5, 2, 7>(t449, t454);
        const Q t475 = t473 - t474;
        const Q t476 = t466 + t469;
        const Q t477 = flipped<0, 1, 0, 1>(t472);
        const Q t478 = t476 + t477;
        const Q t479 = shuffled<0, 1, 4, 5>(t38, t23);
        const Q t480 = t478 + t479;
        io.pairs(5, 6, t480);
        const Q t481 = c[0] * t466;
        const Q t482 = c[1] * t469;
        const Q t483 = t481 - t482;
        const Q t484 = Q(-c[2], c[2], -c[2], c[2]) * t472;
        const Q t485 = t483 + t484;
        const Q t486 = t485 + t479;
        const Q t487 = c[3] * t467;
        const Q t488 = Q(c[4], -c[4], c[4], -c[4]) * t471;
        const Q t489 = t487 + t488;
        const Q t490 = c[5] * t475;
        const Q t491 = t489 - t490;
        const Q t492 = shuffled<1, 0, 3, 2>(t491);
        const Q t493 = flipped<0, 1, 0, 1>(t492);
        const Q t494 = t486 + t493;
        io.pairs(12, 13, t494);
        const Q t495 = t486 - t493;
        io.pairs(47, 48, t495);
        const Q t496 = c[1] * t466;
        const Q t497 = t479 - t496;
        const Q t498 = c[2] * t469;
        const Q t499 = t497 - t498;
        const Q t500 = Q(c[0], -c[0], c[0], -c[0]) * t472;
        const Q t501 = t499 + t500;
        const Q t502 = c[4] * t467;
        const Q t503 = Q(-c[5], c[5], -c[5], c[5]) * t471;
        const Q t504 = t502 + t503;
        const Q t505 = c[3] * t475;
        const Q t506 = t504 + t505;
        const Q t507 = shuffled<1, 0, 3, 2>(t506);
        const Q t508 = flipped<0, 1, 0, 1>(t507);
        const Q t509 = t501 + t508;
        io.pairs(19, 20, t509);
        const Q t510 = t501 - t508;
        io.pairs(40, 41, t510);
        const Q t511 = c[2] * t466;
        const Q t512 = t479 - t511;
        const Q t513 = c[0] * t469;
        const Q t514 = t512 + t513;
        const Q t515 = Q(-c[1], c[1], -c[1], c[1]) * t472;
        const Q t516 = t514 + t515;
        const Q t517 = c[5] * t467;
        const Q t518 = Q(-c[3], c[3], -c[3], c[3]) * t471;
        const Q t519 = t517 + t518;
        const Q t520 = c[4] * t475;
        const Q t521 = t519 - t520;
        const Q t522 = shuffled<1, 0, 3, 2>(t521);
        const Q t523 = flipped<0, 1, 0, 1>(t522);
        const Q t524 = t516 + t523;
        io.pairs(26, 27, t524);
        const Q t525 = t516 - t523;
        io.pairs(33, 34, t525);
    }
};

}  // namespace zulg
