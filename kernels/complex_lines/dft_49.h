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
        0.7818314824680298,  // c[2]: sin 2 pi 1/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 4/7
        0.9009688679024191,  // c[5]: -cos 2 pi 4/7
        0.7183493500977276,  // c[6]: cos 2 pi 6/49
        0.6956825506034864,  // c[7]: sin 2 pi 6/49
        0.03205157757165517,  // c[8]: cos 2 pi 12/49
        0.9994862162006879,  // c[9]: sin 2 pi 12/49
        0.8713187041233893,  // c[10]: cos 2 pi 4/49
        0.4907175520039379,  // c[11]: sin 2 pi 4/49
        0.06407021998071293,  // c[12]: sin 2 pi 24/49
        0.9979453927503363,  // c[13]: -cos 2 pi 24/49
        0.9672948630390295,  // c[14]: cos 2 pi 2/49
        0.2536545839095074,  // c[15]: sin 2 pi 2/49
        0.8014136218679566,  // c[16]: cos 2 pi 5/49
        0.598110530491216,  // c[17]: sin 2 pi 5/49
        0.6482283953077884,  // c[18]: -sin 2 pi 30/49
        0.7614459583691344,  // c[19]: -cos 2 pi 30/49
        0.28452758663103245,  // c[20]: cos 2 pi 10/49
        0.9586678530366606,  // c[21]: sin 2 pi 10/49
        0.9269167573460217,  // c[22]: cos 2 pi 3/49
        0.37526700487937414,  // c[23]: sin 2 pi 3/49
        0.518392568310525,  // c[24]: cos 2 pi 8/49
        0.8551427630053462,  // c[25]: sin 2 pi 8/49
        0.3453650544213076,  // c[26]: -cos 2 pi 15/49
        0.6723008902613168,  // c[27]: -cos 2 pi 18/49
        0.9384684220497604,  // c[28]: sin 2 pi 15/49
        0.7402779970753155,  // c[29]: sin 2 pi 18/49
        0.8380881048918407,  // c[30]: -cos 2 pi 20/49
        0.5455349012105487,  // c[31]: sin 2 pi 20/49
        0.9917900138232462,  // c[32]: cos 2 pi 1/49
        0.12787716168450602,  // c[33]: sin 2 pi 1/49
        0.9953791129491982,  // c[34]: -sin 2 pi 36/49
        0.09602302590768176,  // c[35]: -cos 2 pi 36/49
        0.40478334312239383,  // c[36]: cos 2 pi 9/49
        0.9144126230158125,  // c[37]: sin 2 pi 9/49
        0.46253829024083526,  // c[38]: -cos 2 pi 16/49
        0.8865993063730001,  // c[39]: sin 2 pi 16/49
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
        const Q t8 = c[0] * t0;
        const Q t9 = c[1] * t2;
        const Q t10 = t8 - t9;
        const Q t11 = c[2] * t1;
        const Q t12 = c[3] * t3;
        const Q t13 = t11 - t12;
        const Q x0_1 = io.pairs(0, 1);
        const Q t14 = c[1] * t0;
        const Q t15 = x0_1 - t14;
        const Q t16 = c[3] * t1;
        const Q t17 = c[4] * t3;
        const Q t18 = t16 + t17;
        const Q t19 = c[5] * t0;
        const Q t20 = x0_1 - t19;
        const Q t21 = c[4] * t1;
        const Q t22 = c[2] * t3;
        const Q t23 = t21 + t22;
        const Q x9_10 = io.pairs(9, 10);
        const Q x44_45 = io.pairs(44, 45);
        // complex block of 7
        const Q t24 = x9_10 + x44_45;
        const Q x37_38 = io.pairs(37, 38);
        const Q x16_17 = io.pairs(16, 17);
        const Q t25 = x37_38 + x16_17;
        const Q t26 = x9_10 - x44_45;
        const Q t27 = x37_38 - x16_17;
        const Q t28 = t24 + t25;
        const Q x11_12 = io.pairs(11, 12);
        const Q x46_47 = io.pairs(46, 47);
        // complex block of 7
        const Q t29 = x11_12 + x46_47;
        const Q x39_40 = io.pairs(39, 40);
        const Q x18_19 = io.pairs(18, 19);
        const Q t30 = x39_40 + x18_19;
        const Q t31 = x11_12 - x46_47;
        const Q t32 = x39_40 - x18_19;
        const Q t33 = t29 + t30;
        const Q x30_31 = io.pairs(30, 31);
        const Q x23_24 = io.pairs(23, 24);
        // complex block of 7
        const Q t34 = x30_31 + x23_24;
        const Q t35 = x30_31 - x23_24;
        const Q x32_33 = io.pairs(32, 33);
        const Q x25_26 = io.pairs(25, 26);
        // complex block of 7
        const Q t36 = x32_33 + x25_26;
        const Q t37 = x32_33 - x25_26;
        // complex block of 7
        const Q t38 = t28 + t34;
        const Q x2_3 = io.pairs(2, 3);
        const Q t39 = t38 + x2_3;
        // complex block of 7
        const Q t40 = t33 + t36;
        const Q x4_5 = io.pairs(4, 5);
        const Q t41 = t40 + x4_5;
        const P x41 = io.pair(41);
        const P t42 = part<1>(t41);
        const Q t43 = joined(x41, t42);
        const P x20 = io.pair(20);
        const P t44 = part<0>(t39);
        const Q t45 = joined(x20, t44);
        // complex block of 7
        const Q t46 = t43 + t45;
        const P x34 = io.pair(34);
        const P t47 = part<0>(t41);
        const Q t48 = joined(x34, t47);
        const P x27 = io.pair(27);
        const P t49 = part<1>(t39);
        const Q t50 = joined(x27, t49);
        const Q t51 = t48 + t50;
        // complex block of 7
        const Q t52 = c[0] * t24;
        const Q t53 = c[1] * t25;
        const Q t54 = t52 - t53;
        const Q t55 = c[2] * t26;
        const Q t56 = c[3] * t27;
        const Q t57 = t55 - t56;
        const Q t58 = c[1] * t24;
        const Q t59 = x2_3 - t58;
        const Q t60 = c[3] * t26;
        const Q t61 = c[4] * t27;
        const Q t62 = t60 + t61;
        const Q t63 = c[5] * t24;
        const Q t64 = x2_3 - t63;
        const Q t65 = c[4] * t26;
        const Q t66 = c[2] * t27;
        const Q t67 = t65 + t66;
        // complex block of 7
        const Q t68 = c[0] * t29;
        const Q t69 = c[1] * t30;
        const Q t70 = t68 - t69;
        const Q t71 = c[2] * t31;
        const Q t72 = c[3] * t32;
        const Q t73 = t71 - t72;
        const Q t74 = c[1] * t29;
        const Q t75 = x4_5 - t74;
        const Q t76 = c[3] * t31;
        const Q t77 = c[4] * t32;
        const Q t78 = t76 + t77;
        const Q t79 = c[5] * t29;
        const Q t80 = x4_5 - t79;
        const Q t81 = c[4] * t31;
        const Q t82 = c[2] * t32;
        const Q t83 = t81 + t82;
        const P x13 = io.pair(13);
        const P x48 = io.pair(48);
        // complex block of 7
        const P t84 = x13 + x48;
        // complex block of 7
        const Q t85 = t7 + x0_1;
        const P t86 = part<0>(t46);
        // complex block of 7
        const P t87 = t84 + t86;
        const V t88 = part<0>(t87);
        const P t89 = part<0>(t51);
        const V t90 = part<0>(t89);
        const V t91 = t88 + t90;
        const V t92 = part<1>(t87);
        const V t93 = part<1>(t89);
        const V t94 = t92 + t93;
        const P x6 = io.pair(6);
        const V t95 = part<0>(x6);
        const V t96 = t91 + t95;
        const V t97 = part<1>(x6);
        const V t98 = t94 + t97;
        const P t99 = part<1>(t85);
        const V t100 = part<0>(t99);
        // complex block of 7
        const V t101 = t100 + t96;
        const V t102 = part<1>(t99);
        const V t103 = t102 + t98;
        const P t104 = joined(t101, t103);
        const Q t105 = joined(t84, t104);
        // complex block of 7
        const Q t106 = c[0] * t105;
        const Q t107 = c[1] * t46;
        const Q t108 = t106 - t107;
        const P t109 = part<0>(t85);
        const Q t110 = joined(x6, t109);
        const Q t111 = c[1] * t105;
        const Q t112 = t110 - t111;
        const Q t113 = c[5] * t105;
        const Q t114 = t110 - t113;
        const Q t115 = joined(x13, t99);
        const P t116 = joined(t96, t98);
        const Q t117 = joined(x48, t116);
        const Q t118 = t115 - t117;
        // complex block of 7
        const Q t119 = c[5] * t4;
        const Q t120 = t10 - t119;
        const Q t121 = t120 + x0_1;
        const Q t122 = c[4] * t5;
        const Q t123 = t13 - t122;
        const Q t124 = c[5] * t2;
        const Q t125 = t15 - t124;
        const Q t126 = c[0] * t4;
        const Q t127 = t125 + t126;
        const Q t128 = c[2] * t5;
        const Q t129 = t18 + t128;
        const Q t130 = shuffled<1, 0, 3, 2>(t123);
        const Q t131 = flipped<0, 1, 0, 1>(t130);
        const Q t132 = t121 + t131;
        const Q t133 = shuffled<1, 0, 3, 2>(t129);
        const Q t134 = flipped<0, 1, 0, 1>(t133);
        const Q t135 = t127 + t134;
        const Q t136 = t121 - t131;
        const Q t137 = t127 - t134;
        const Q t138 = c[0] * t2;
        const Q t139 = t20 + t138;
        const Q t140 = c[1] * t4;
        const Q t141 = t139 - t140;
        const Q t142 = c[3] * t5;
        const Q t143 = t23 - t142;
        const Q t144 = shuffled<1, 0, 3, 2>(t143);
        const Q t145 = flipped<0, 1, 0, 1>(t144);
        const Q t146 = t141 + t145;
        const Q t147 = t141 - t145;
        // complex block of 7
        const Q t148 = c[5] * t34;
        const Q t149 = t54 - t148;
        const Q t150 = t149 + x2_3;
        const Q t151 = c[4] * t35;
        const Q t152 = t57 - t151;
        const Q t153 = c[5] * t25;
        const Q t154 = t59 - t153;
        const Q t155 = c[0] * t34;
        const Q t156 = t154 + t155;
        const Q t157 = c[2] * t35;
        const Q t158 = t62 + t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t152);
        const Q t160 = flipped<0, 1, 0, 1>(t159);
        const Q t161 = t150 + t160;
        const Q t162 = shuffled<1, 0, 3, 2>(t158);
        const Q t163 = flipped<0, 1, 0, 1>(t162);
        const Q t164 = t156 + t163;
        const Q t165 = t150 - t160;
        const Q t166 = t156 - t163;
        const Q t167 = c[0] * t25;
        const Q t168 = t64 + t167;
        const Q t169 = c[1] * t34;
        const Q t170 = t168 - t169;
        const Q t171 = c[3] * t35;
        const Q t172 = t67 - t171;
        const Q t173 = shuffled<1, 0, 3, 2>(t172);
        const Q t174 = flipped<0, 1, 0, 1>(t173);
        const Q t175 = t170 + t174;
        const Q t176 = t170 - t174;
        // complex block of 7
        const Q t177 = c[5] * t36;
        const Q t178 = t70 - t177;
        const Q t179 = t178 + x4_5;
        const Q t180 = c[4] * t37;
        const Q t181 = t73 - t180;
        const Q t182 = c[5] * t30;
        const Q t183 = t75 - t182;
        const Q t184 = c[0] * t36;
        const Q t185 = t183 + t184;
        const Q t186 = c[2] * t37;
        const Q t187 = t78 + t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t181);
        const Q t189 = flipped<0, 1, 0, 1>(t188);
        const Q t190 = t179 + t189;
        const Q t191 = shuffled<1, 0, 3, 2>(t187);
        const Q t192 = flipped<0, 1, 0, 1>(t191);
        const Q t193 = t185 + t192;
        const Q t194 = t179 - t189;
        const Q t195 = t185 - t192;
        const Q t196 = c[0] * t30;
        const Q t197 = t80 + t196;
        const Q t198 = c[1] * t36;
        const Q t199 = t197 - t198;
        const Q t200 = c[3] * t37;
        const Q t201 = t83 - t200;
        const Q t202 = shuffled<1, 0, 3, 2>(t201);
        const Q t203 = flipped<0, 1, 0, 1>(t202);
        const Q t204 = t199 + t203;
        const Q t205 = t199 - t203;
        // complex block of 7
        const Q t206 = t43 - t45;
        const Q t207 = t48 - t50;
        const P t208 = part<1>(t46);
        // complex block of 7
        const P t209 = t104 + t208;
        const P t210 = part<1>(t51);
        const P t211 = t209 + t210;
        const P t212 = t211 + t109;
        io.pair(0, t212);
        // complex block of 7
        const Q t213 = c[5] * t51;
        const Q t214 = t108 - t213;
        const Q t215 = t214 + t110;
        const Q t216 = c[2] * t118;
        const Q t217 = c[3] * t206;
        const Q t218 = t216 - t217;
        const Q t219 = c[4] * t207;
        const Q t220 = t218 - t219;
        const Q t221 = shuffled<1, 0, 3, 2>(t220);
        const Q t222 = flipped<0, 1, 0, 1>(t221);
        const Q t223 = t215 + t222;
        const P t224 = part<1>(t223);
        io.pair(7, t224);
        const Q t225 = t215 - t222;
        const P t226 = part<1>(t225);
        io.pair(42, t226);
        const Q t227 = c[5] * t46;
        const Q t228 = t112 - t227;
        const Q t229 = c[0] * t51;
        const Q t230 = t228 + t229;
        const Q t231 = c[3] * t118;
        const Q t232 = c[4] * t206;
        const Q t233 = t231 + t232;
        const Q t234 = c[2] * t207;
        const Q t235 = t233 + t234;
        const Q t236 = shuffled<1, 0, 3, 2>(t235);
        const Q t237 = flipped<0, 1, 0, 1>(t236);
        const Q t238 = t230 + t237;
        const P t239 = part<1>(t238);
        io.pair(14, t239);
        const Q t240 = t230 - t237;
        const P t241 = part<1>(t240);
        io.pair(35, t241);
        const Q t242 = shuffled<2, 3, 6, 7>(t132, t135);
        // complex block of 49
        const Q t243 = Q(c[32], c[32], c[14], c[14]) * t242;
        const Q t244 = shuffled<1, 0, 3, 2>(t242);
        const Q t245 = Q(c[33], -c[33], c[15], -c[15]) * t244;
        const Q t246 = t243 + t245;
        const Q t247 = shuffled<2, 3, 6, 7>(t137, t136);
        const Q t248 = Q(c[16], c[16], c[6], c[6]) * t247;
        const Q t249 = shuffled<1, 0, 3, 2>(t247);
        const Q t250 = Q(c[17], -c[17], c[7], -c[7]) * t249;
        const Q t251 = t248 + t250;
        const Q t252 = shuffled<0, 1, 4, 5>(t223, t238);
        const Q t253 = Q(c[6], c[6], c[8], c[8]) * t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t252);
        const Q t255 = Q(c[7], -c[7], c[9], -c[9]) * t254;
        const Q t256 = t253 + t255;
        // complex block of 7
        const Q t257 = t246 + t256;
        const Q t258 = shuffled<0, 1, 4, 5>(t240, t225);
        const Q t259 = shuffled<1, 0, 3, 2>(t258);
        // complex block of 49
        const Q t260 = Q(c[18], c[18], c[34], c[34]) * t259;
        const Q t261 = Q(c[19], -c[19], c[35], -c[35]) * t258;
        const Q t262 = t260 + t261;
        const Q t263 = flipped<1, 0, 1, 0>(t262);
        // complex block of 7
        const Q t264 = t251 + t263;
        const Q t265 = shuffled<0, 1, 4, 5>(t161, t164);
        // complex block of 49
        const Q t266 = Q(c[14], c[14], c[10], c[10]) * t265;
        const Q t267 = shuffled<1, 0, 3, 2>(t265);
        const Q t268 = Q(c[15], -c[15], c[11], -c[11]) * t267;
        const Q t269 = t266 + t268;
        const Q t270 = shuffled<2, 3, 6, 7>(t190, t193);
        const Q t271 = Q(c[16], c[16], c[20], c[20]) * t270;
        const Q t272 = shuffled<1, 0, 3, 2>(t270);
        const Q t273 = Q(c[17], -c[17], c[21], -c[21]) * t272;
        const Q t274 = t271 + t273;
        // complex block of 7
        const Q t275 = t274 + t269;
        const Q t276 = t274 - t269;
        const Q t277 = shuffled<2, 3, 6, 7>(t161, t164);
        // complex block of 49
        const Q t278 = Q(c[22], c[22], c[6], c[6]) * t277;
        const Q t279 = shuffled<1, 0, 3, 2>(t277);
        const Q t280 = Q(c[23], -c[23], c[7], -c[7]) * t279;
        const Q t281 = t278 + t280;
        const Q t282 = shuffled<0, 1, 4, 5>(t190, t193);
        const Q t283 = Q(c[10], c[10], c[24], c[24]) * t282;
        const Q t284 = shuffled<1, 0, 3, 2>(t282);
        const Q t285 = Q(c[11], -c[11], c[25], -c[25]) * t284;
        const Q t286 = t283 + t285;
        // complex block of 7
        const Q t287 = t286 + t281;
        const Q t288 = t286 - t281;
        const Q t289 = shuffled<0, 1, 4, 5>(t166, t165);
        // complex block of 49
        const Q t290 = Q(c[20], c[20], c[8], c[8]) * t289;
        const Q t291 = shuffled<1, 0, 3, 2>(t289);
        const Q t292 = Q(c[21], -c[21], c[9], -c[9]) * t291;
        const Q t293 = t290 + t292;
        const Q t294 = shuffled<2, 3, 6, 7>(t195, t194);
        const Q t295 = shuffled<1, 0, 3, 2>(t294);
        const Q t296 = Q(c[12], c[12], c[18], c[18]) * t295;
        const Q t297 = Q(c[13], -c[13], c[19], -c[19]) * t294;
        const Q t298 = t296 + t297;
        const Q t299 = flipped<1, 0, 1, 0>(t298);
        // complex block of 7
        const Q t300 = t299 + t293;
        const Q t301 = flipped<0, 1, 0, 1>(t293);
        const Q t302 = t298 + t301;
        const Q t303 = shuffled<2, 3, 6, 7>(t166, t165);
        // complex block of 49
        const Q t304 = Q(-c[26], c[26], -c[27], c[27]) * t303;
        const Q t305 = shuffled<1, 0, 3, 2>(t303);
        const Q t306 = Q(c[28], c[28], c[29], c[29]) * t305;
        const Q t307 = t304 + t306;
        const Q t308 = shuffled<0, 1, 4, 5>(t195, t194);
        const Q t309 = Q(-c[30], c[30], -c[13], c[13]) * t308;
        const Q t310 = shuffled<1, 0, 3, 2>(t308);
        const Q t311 = Q(c[31], c[31], c[12], c[12]) * t310;
        const Q t312 = t309 + t311;
        // complex block of 7
        const Q t313 = t312 + t307;
        const Q t314 = shuffled<0, 5, 2, 7>(t312, t307);
        const Q t315 = shuffled<0, 5, 2, 7>(t307, t312);
        const Q t316 = t314 - t315;
        // complex block of 7
        const Q t317 = t246 - t256;
        const Q t318 = c[2] * t317;
        const Q t319 = c[3] * t276;
        const Q t320 = t318 - t319;
        const Q t321 = c[3] * t317;
        const Q t322 = c[4] * t276;
        const Q t323 = t321 + t322;
        const Q t324 = c[4] * t317;
        const Q t325 = c[2] * t276;
        const Q t326 = t324 + t325;
        const Q t327 = c[0] * t257;
        const Q t328 = c[1] * t275;
        const Q t329 = t327 - t328;
        const Q t330 = c[5] * t287;
        const Q t331 = t329 - t330;
        const Q t332 = shuffled<0, 1, 4, 5>(t132, t135);
        const Q t333 = c[1] * t257;
        const Q t334 = t332 - t333;
        const Q t335 = c[5] * t275;
        const Q t336 = t334 - t335;
        const Q t337 = c[5] * t257;
        const Q t338 = t332 - t337;
        const Q t339 = c[0] * t275;
        const Q t340 = t338 + t339;
        const Q t341 = t331 + t332;
        const Q t342 = c[4] * t288;
        const Q t343 = t320 - t342;
        const Q t344 = shuffled<1, 0, 3, 2>(t343);
        const Q t345 = flipped<0, 1, 0, 1>(t344);
        const Q t346 = t341 + t345;
        io.pairs(8, 9, t346);
        const Q t347 = t341 - t345;
        io.pairs(43, 44, t347);
        const Q t348 = c[0] * t287;
        const Q t349 = t336 + t348;
        const Q t350 = c[2] * t288;
        const Q t351 = t323 + t350;
        const Q t352 = shuffled<1, 0, 3, 2>(t351);
        const Q t353 = flipped<0, 1, 0, 1>(t352);
        const Q t354 = t349 + t353;
        io.pairs(15, 16, t354);
        const Q t355 = t349 - t353;
        io.pairs(36, 37, t355);
        const Q t356 = c[1] * t287;
        const Q t357 = t340 - t356;
        const Q t358 = c[3] * t288;
        const Q t359 = t326 - t358;
        const Q t360 = shuffled<1, 0, 3, 2>(t359);
        const Q t361 = flipped<0, 1, 0, 1>(t360);
        const Q t362 = t357 + t361;
        io.pairs(22, 23, t362);
        const Q t363 = t357 - t361;
        io.pairs(29, 30, t363);
        const Q t364 = t257 + t275;
        const Q t365 = t364 + t287;
        const Q t366 = t365 + t332;
        io.pairs(1, 2, t366);
        // complex block of 7
        const Q t367 = t251 - t263;
        const Q t368 = c[2] * t367;
        const Q t369 = Q(c[3], -c[3], c[3], -c[3]) * t302;
        const Q t370 = t368 + t369;
        const Q t371 = c[3] * t367;
        const Q t372 = Q(-c[4], c[4], -c[4], c[4]) * t302;
        const Q t373 = t371 + t372;
        const Q t374 = c[4] * t367;
        const Q t375 = Q(-c[2], c[2], -c[2], c[2]) * t302;
        const Q t376 = t374 + t375;
        const Q t377 = c[0] * t264;
        const Q t378 = c[1] * t300;
        const Q t379 = t377 - t378;
        const Q t380 = Q(-c[5], c[5], -c[5], c[5]) * t313;
        const Q t381 = t379 + t380;
        const Q t382 = shuffled<0, 1, 4, 5>(t137, t136);
        const Q t383 = c[1] * t264;
        const Q t384 = t382 - t383;
        const Q t385 = c[5] * t300;
        const Q t386 = t384 - t385;
        const Q t387 = c[5] * t264;
        const Q t388 = t382 - t387;
        const Q t389 = c[0] * t300;
        const Q t390 = t388 + t389;
        const Q t391 = t381 + t382;
        const Q t392 = c[4] * t316;
        const Q t393 = t370 - t392;
        const Q t394 = shuffled<1, 0, 3, 2>(t393);
        const Q t395 = flipped<0, 1, 0, 1>(t394);
        const Q t396 = t391 + t395;
        io.pairs(12, 13, t396);
        const Q t397 = t391 - t395;
        io.pairs(47, 48, t397);
        const Q t398 = Q(c[0], -c[0], c[0], -c[0]) * t313;
        const Q t399 = t386 + t398;
        const Q t400 = c[2] * t316;
        const Q t401 = t373 + t400;
        const Q t402 = shuffled<1, 0, 3, 2>(t401);
        const Q t403 = flipped<0, 1, 0, 1>(t402);
        const Q t404 = t399 + t403;
        io.pairs(19, 20, t404);
        const Q t405 = t399 - t403;
        io.pairs(40, 41, t405);
        const Q t406 = Q(-c[1], c[1], -c[1], c[1]) * t313;
        const Q t407 = t390 + t406;
        const Q t408 = c[3] * t316;
        const Q t409 = t376 - t408;
        const Q t410 = shuffled<1, 0, 3, 2>(t409);
        const Q t411 = flipped<0, 1, 0, 1>(t410);
        const Q t412 = t407 + t411;
        io.pairs(26, 27, t412);
        const Q t413 = t407 - t411;
        io.pairs(33, 34, t413);
        const Q t414 = t264 + t300;
        const Q t415 = flipped<0, 1, 0, 1>(t313);
        const Q t416 = t414 + t415;
        const Q t417 = t416 + t382;
        io.pairs(5, 6, t417);
        // complex block of 7
        const Q t418 = c[0] * t46;
        const Q t419 = t114 + t418;
        const Q t420 = c[1] * t51;
        const Q t421 = t419 - t420;
        const Q t422 = c[4] * t118;
        const Q t423 = c[2] * t206;
        const Q t424 = t422 + t423;
        const Q t425 = c[3] * t207;
        const Q t426 = t424 - t425;
        const Q t427 = shuffled<1, 0, 3, 2>(t426);
        const Q t428 = flipped<0, 1, 0, 1>(t427);
        const Q t429 = t421 + t428;
        const P t430 = part<1>(t429);
        io.pair(21, t430);
        const Q t431 = t421 - t428;
        const P t432 = part<1>(t431);
        io.pair(28, t432);
        const Q t433 = shuffled<2, 3, 6, 7>(t146, t147);
        // complex block of 49
        const Q t434 = Q(c[22], c[22], c[10], c[10]) * t433;
        const Q t435 = shuffled<1, 0, 3, 2>(t433);
        const Q t436 = Q(c[23], -c[23], c[11], -c[11]) * t435;
        const Q t437 = t434 + t436;
        const Q t438 = shuffled<0, 1, 4, 5>(t429, t431);
        const Q t439 = Q(-c[27], c[27], -c[13], c[13]) * t438;
        const Q t440 = shuffled<1, 0, 3, 2>(t438);
        const Q t441 = Q(c[29], c[29], c[12], c[12]) * t440;
        const Q t442 = t439 + t441;
        const Q t443 = flipped<0, 1, 0, 1>(t442);
        // complex block of 7
        const Q t444 = t437 + t443;
        const Q t445 = shuffled<0, 1, 4, 5>(t175, t176);
        // complex block of 49
        const Q t446 = Q(c[6], c[6], c[24], c[24]) * t445;
        const Q t447 = shuffled<1, 0, 3, 2>(t445);
        const Q t448 = Q(c[7], -c[7], c[25], -c[25]) * t447;
        const Q t449 = t446 + t448;
        const Q t450 = shuffled<2, 3, 6, 7>(t204, t205);
        const Q t451 = Q(-c[26], c[26], -c[30], c[30]) * t450;
        const Q t452 = shuffled<1, 0, 3, 2>(t450);
        const Q t453 = Q(c[28], c[28], c[31], c[31]) * t452;
        const Q t454 = t451 + t453;
        const Q t455 = flipped<0, 1, 0, 1>(t454);
        // complex block of 7
        const Q t456 = t449 + t455;
        const Q t457 = flipped<1, 0, 1, 0>(t449);
        const Q t458 = t454 + t457;
        const Q t459 = shuffled<2, 3, 6, 7>(t175, t176);
        // complex block of 49
        const Q t460 = Q(c[36], c[36], c[8], c[8]) * t459;
        const Q t461 = shuffled<1, 0, 3, 2>(t459);
        const Q t462 = Q(c[37], -c[37], c[9], -c[9]) * t461;
        const Q t463 = t460 + t462;
        const Q t464 = shuffled<1, 0, 3, 2>(t204);
        const Q t465 = shuffled<0, 1, 4, 5>(t464, t205);
        const Q t466 = Q(c[9], -c[9], -c[38], c[38]) * t465;
        const Q t467 = shuffled<1, 0, 3, 2>(t465);
        const Q t468 = Q(c[8], c[8], c[39], c[39]) * t467;
        const Q t469 = t466 + t468;
        const Q t470 = flipped<0, 0, 0, 1>(t469);
        // complex block of 7
        const Q t471 = t463 + t470;
        const Q t472 = flipped<0, 0, 0, 1>(t463);
        const Q t473 = t469 - t472;
        const Q t474 = t437 - t443;
        const Q t475 = c[2] * t474;
        const Q t476 = Q(-c[3], c[3], -c[3], c[3]) * t458;
        const Q t477 = t475 + t476;
        const Q t478 = c[3] * t474;
        const Q t479 = Q(c[4], -c[4], c[4], -c[4]) * t458;
        const Q t480 = t478 + t479;
        const Q t481 = c[4] * t474;
        const Q t482 = Q(c[2], -c[2], c[2], -c[2]) * t458;
        const Q t483 = t481 + t482;
        const Q t484 = c[0] * t444;
        const Q t485 = c[1] * t456;
        const Q t486 = t484 - t485;
        const Q t487 = c[5] * t471;
        const Q t488 = t486 - t487;
        const Q t489 = shuffled<0, 1, 4, 5>(t146, t147);
        const Q t490 = c[1] * t444;
        const Q t491 = t489 - t490;
        const Q t492 = c[5] * t456;
        const Q t493 = t491 - t492;
        const Q t494 = c[5] * t444;
        const Q t495 = t489 - t494;
        const Q t496 = c[0] * t456;
        const Q t497 = t495 + t496;
        const Q t498 = t488 + t489;
        const Q t499 = Q(c[4], c[4], c[4], -c[4]) * t473;
        const Q t500 = t477 - t499;
        const Q t501 = shuffled<1, 0, 3, 2>(t500);
        const Q t502 = flipped<0, 1, 0, 1>(t501);
        const Q t503 = t498 + t502;
        io.pairs(10, 11, t503);
        const Q t504 = t498 - t502;
        io.pairs(45, 46, t504);
        const Q t505 = c[0] * t471;
        const Q t506 = t493 + t505;
        const Q t507 = Q(c[2], c[2], c[2], -c[2]) * t473;
        const Q t508 = t480 + t507;
        const Q t509 = shuffled<1, 0, 3, 2>(t508);
        const Q t510 = flipped<0, 1, 0, 1>(t509);
        const Q t511 = t506 + t510;
        io.pairs(17, 18, t511);
        const Q t512 = t506 - t510;
        io.pairs(38, 39, t512);
        const Q t513 = c[1] * t471;
        const Q t514 = t497 - t513;
        const Q t515 = Q(c[3], c[3], c[3], -c[3]) * t473;
        const Q t516 = t483 - t515;
        const Q t517 = shuffled<1, 0, 3, 2>(t516);
        const Q t518 = flipped<0, 1, 0, 1>(t517);
        const Q t519 = t514 + t518;
        io.pairs(24, 25, t519);
        const Q t520 = t514 - t518;
        io.pairs(31, 32, t520);
        const Q t521 = t444 + t456;
        const Q t522 = t521 + t471;
        const Q t523 = t522 + t489;
        io.pairs(3, 4, t523);
    }
};

}  // namespace zulg
