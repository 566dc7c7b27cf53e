// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 49.
// Forward DFT of 49 real points, twiddled 7, 7; up to four lanes to a register.
// 79 sums, 57 differences, 90 products of registers, which do the 781 steps of the graph, those with
// `scale` included; 97 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<49> {
    static constexpr int steps = 781;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 4/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.7183493500977276,  // c[6]: cos 2 pi 6/49
        0.6956825506034864,  // c[7]: sin 2 pi 6/49
        0.9269167573460217,  // c[8]: cos 2 pi 3/49
        0.37526700487937414,  // c[9]: sin 2 pi 3/49
        0.9672948630390295,  // c[10]: cos 2 pi 2/49
        0.2536545839095074,  // c[11]: sin 2 pi 2/49
        0.8713187041233893,  // c[12]: cos 2 pi 4/49
        0.03205157757165517,  // c[13]: cos 2 pi 12/49
        0.4907175520039379,  // c[14]: sin 2 pi 4/49
        0.9994862162006879,  // c[15]: sin 2 pi 12/49
        0.9917900138232462,  // c[16]: cos 2 pi 1/49
        0.12787716168450602,  // c[17]: sin 2 pi 1/49
        0.598110530491216,  // c[18]: sin 2 pi 5/49
        0.3453650544213076,  // c[19]: -cos 2 pi 15/49
        0.8014136218679566,  // c[20]: cos 2 pi 5/49
        0.9384684220497604,  // c[21]: sin 2 pi 15/49
        0.6723008902613168,  // c[22]: -cos 2 pi 18/49
        0.7402779970753155,  // c[23]: sin 2 pi 18/49
        0.40478334312239383,  // c[24]: cos 2 pi 9/49
        0.9144126230158125,  // c[25]: sin 2 pi 9/49
        0.518392568310525,  // c[26]: cos 2 pi 8/49
        0.8551427630053462,  // c[27]: sin 2 pi 8/49
        0.28452758663103245,  // c[28]: cos 2 pi 10/49
        0.9586678530366606,  // c[29]: sin 2 pi 10/49
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x7_8_9_10 = io.in(7, 8, 9, 10);
        const Q x42_43_44_45 = io.in(42, 43, 44, 45);
        // real block of 7
        const Q t0 = x7_8_9_10 + x42_43_44_45;
        const Q x35_36_37_38 = io.in(35, 36, 37, 38);
        const Q x14_15_16_17 = io.in(14, 15, 16, 17);
        const Q t1 = x35_36_37_38 + x14_15_16_17;
        const Q t2 = x7_8_9_10 - x42_43_44_45;
        const Q t3 = x35_36_37_38 - x14_15_16_17;
        const Q t4 = t0 + t1;
        const P x11_12 = io.in(11, 12);
        const P x46_47 = io.in(46, 47);
        // real block of 7
        const P t5 = x11_12 + x46_47;
        const P x39_40 = io.in(39, 40);
        const P x18_19 = io.in(18, 19);
        const P t6 = x39_40 + x18_19;
        const V t7 = part<0>(t5);
        const V t8 = part<0>(t6);
        const V t9 = t7 + t8;
        const V t10 = part<1>(t5);
        const V t11 = part<1>(t6);
        // real block of 7
        const V t12 = t10 + t11;
        const Q x28_29_30_31 = io.in(28, 29, 30, 31);
        const Q x21_22_23_24 = io.in(21, 22, 23, 24);
        // real block of 7
        const Q t13 = x28_29_30_31 + x21_22_23_24;
        const Q t14 = x28_29_30_31 - x21_22_23_24;
        const P x32_33 = io.in(32, 33);
        const P x25_26 = io.in(25, 26);
        // real block of 7
        const P t15 = x32_33 + x25_26;
        // real block of 7
        const Q t16 = t4 + t13;
        const Q x0_1_2_3 = io.in(0, 1, 2, 3);
        const Q t17 = t16 + x0_1_2_3;
        const V t18 = part<1>(t15);
        // real block of 7
        const V t19 = t12 + t18;
        const V x5 = io.in(5);
        const V t20 = t19 + x5;
        const V x41 = io.in(41);
        const P t21 = joined(x41, t20);
        const V x20 = io.in(20);
        const P t22 = part<1>(t17);
        const V t23 = part<0>(t22);
        const P t24 = joined(x20, t23);
        // real block of 7
        const P t25 = t21 + t24;
        // real block of 7
        const Q t26 = c[0] * t0;
        const Q t27 = c[1] * t1;
        const Q t28 = t26 - t27;
        const Q t29 = c[1] * t0;
        const Q t30 = x0_1_2_3 - t29;
        const Q t31 = c[2] * t0;
        const Q t32 = x0_1_2_3 - t31;
        const V t33 = part<0>(t15);
        // real block of 7
        const V t34 = t9 + t33;
        const V x4 = io.in(4);
        const V t35 = t34 + x4;
        const V x13 = io.in(13);
        const V x48 = io.in(48);
        // real block of 7
        const V t36 = x13 + x48;
        // real block of 7
        const Q t37 = c[2] * t13;
        const Q t38 = t28 - t37;
        const Q t39 = t38 + x0_1_2_3;
        const Q t40 = c[3] * t3;
        const Q t41 = c[4] * t14;
        const Q t42 = t40 + t41;
        const Q t43 = c[5] * t2;
        const Q t44 = t42 - t43;
        const Q t45 = c[0] * t1;
        const Q t46 = t32 + t45;
        const Q t47 = c[1] * t13;
        const Q t48 = t46 - t47;
        const Q t49 = c[3] * t14;
        const Q t50 = c[4] * t2;
        const Q t51 = t49 - t50;
        const Q t52 = c[5] * t3;
        const Q t53 = t51 - t52;
        const Q t54 = c[2] * t1;
        const Q t55 = t30 - t54;
        const Q t56 = c[0] * t13;
        const Q t57 = t55 + t56;
        const Q t58 = c[3] * t2;
        const Q t59 = c[4] * t3;
        const Q t60 = t58 + t59;
        const Q t61 = c[5] * t14;
        const Q t62 = t60 + t61;
        const V t63 = part<0>(t25);
        // real block of 7
        const V t64 = t36 + t63;
        const V x34 = io.in(34);
        const P t65 = joined(x34, t35);
        const V x27 = io.in(27);
        const V t66 = part<1>(t22);
        const P t67 = joined(x27, t66);
        const P t68 = t65 + t67;
        const V t69 = part<0>(t68);
        const V t70 = t64 + t69;
        const V x6 = io.in(6);
        const V t71 = t70 + x6;
        const P t72 = part<0>(t17);
        const V t73 = part<1>(t72);
        // real block of 7
        const V t74 = t73 + t71;
        const P t75 = joined(x13, t73);
        const Q t76 = joined(x11_12, t75);
        const P t77 = joined(x48, t71);
        const Q t78 = joined(x46_47, t77);
        // real block of 7
        const Q t79 = t76 - t78;
        const Q t80 = joined(x39_40, t21);
        const Q t81 = joined(x18_19, t24);
        const Q t82 = t80 - t81;
        const Q t83 = joined(x32_33, t65);
        const Q t84 = joined(x25_26, t67);
        const Q t85 = t83 - t84;
        const Q t86 = c[3] * t82;
        const Q t87 = c[4] * t85;
        const Q t88 = t86 + t87;
        const V t89 = part<1>(t25);
        // real block of 7
        const V t90 = t74 + t89;
        const V t91 = part<1>(t68);
        const V t92 = t90 + t91;
        const V t93 = part<0>(t72);
        const V t94 = t92 + t93;
        io.re(0, t94);
        const P t95 = joined(t36, t74);
        const Q t96 = joined(t5, t95);
        // real block of 7
        const Q t97 = c[0] * t96;
        const Q t98 = joined(t6, t25);
        const Q t99 = c[1] * t98;
        const Q t100 = t97 - t99;
        const Q t101 = joined(t15, t68);
        const Q t102 = c[2] * t101;
        const Q t103 = t100 - t102;
        const P t104 = joined(x4, x5);
        const P t105 = joined(x6, t93);
        const Q t106 = joined(t104, t105);
        const Q t107 = t103 + t106;
        const Q t108 = c[5] * t79;
        const Q t109 = t88 - t108;
        const P t110 = part<1>(t107);
        const P t111 = part<1>(t109);
        const P t112 = shuffled<1, 3>(t110, t111);
        io.pair(7, t112);
        const Q t113 = c[2] * t96;
        const Q t114 = t106 - t113;
        const Q t115 = c[0] * t98;
        const Q t116 = t114 + t115;
        const Q t117 = c[1] * t101;
        const Q t118 = t116 - t117;
        const Q t119 = c[3] * t85;
        const Q t120 = c[4] * t79;
        const Q t121 = t119 - t120;
        const Q t122 = c[5] * t82;
        const Q t123 = t121 - t122;
        const P t124 = part<1>(t118);
        const P t125 = part<1>(t123);
        const P t126 = shuffled<1, 3>(t124, t125);
        io.pair(21, t126);
        const Q t127 = shuffled<1, 5, 3, 7>(t39, t44);
        const Q t128 = shuffled<1, 5, 3, 7>(t48, t53);
        const Q t129 = shuffled<0, 1, 4, 5>(t127, t128);
        // real block of 49
        const Q t130 = Q(c[16], c[16], c[8], c[8]) * t129;
        const Q t131 = shuffled<1, 0, 3, 2>(t129);
        const Q t132 = Q(c[17], -c[17], c[9], -c[9]) * t131;
        const Q t133 = t130 + t132;
        const Q t134 = shuffled<0, 4, 2, 6>(t39, t44);
        const Q t135 = shuffled<0, 4, 2, 6>(t48, t53);
        const Q t136 = shuffled<2, 3, 6, 7>(t134, t135);
        const Q t137 = Q(c[10], c[10], c[6], c[6]) * t136;
        const Q t138 = shuffled<1, 0, 3, 2>(t136);
        const Q t139 = Q(c[11], -c[11], c[7], -c[7]) * t138;
        const Q t140 = t137 + t139;
        const Q t141 = shuffled<0, 4, 2, 6>(t107, t109);
        const Q t142 = shuffled<0, 4, 2, 6>(t118, t123);
        const Q t143 = shuffled<0, 1, 4, 5>(t141, t142);
        const Q t144 = Q(c[12], c[12], c[13], c[13]) * t143;
        const Q t145 = shuffled<1, 0, 3, 2>(t143);
        const Q t146 = Q(c[14], -c[14], c[15], -c[15]) * t145;
        const Q t147 = t144 + t146;
        const Q t148 = shuffled<1, 5, 3, 7>(t109, t107);
        const Q t149 = shuffled<1, 5, 3, 7>(t118, t123);
        const Q t150 = shuffled<0, 1, 4, 5>(t148, t149);
        const Q t151 = Q(c[18], -c[18], -c[19], c[19]) * t150;
        const Q t152 = shuffled<1, 0, 3, 2>(t150);
        const Q t153 = Q(c[20], c[20], c[21], c[21]) * t152;
        const Q t154 = t151 + t153;
        const Q t155 = flipped<0, 0, 0, 1>(t154);
        // complex block of 7
        const Q t156 = t140 + t155;
        const Q t157 = shuffled<1, 0, 3, 2>(t141);
        const Q t158 = shuffled<2, 3, 6, 7>(t157, t142);
        // real block of 49
        const Q t159 = Q(c[7], -c[7], -c[22], c[22]) * t158;
        const Q t160 = shuffled<1, 0, 3, 2>(t158);
        const Q t161 = Q(c[6], c[6], c[23], c[23]) * t160;
        const Q t162 = t159 + t161;
        const Q t163 = flipped<0, 0, 0, 1>(t162);
        // complex block of 7
        const Q t164 = t133 + t163;
        const Q t165 = shuffled<2, 3, 6, 7>(t127, t128);
        // real block of 49
        const Q t166 = Q(c[8], c[8], c[24], c[24]) * t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t165);
        const Q t168 = Q(c[9], -c[9], c[25], -c[25]) * t167;
        const Q t169 = t166 + t168;
        // complex block of 7
        const Q t170 = t133 - t163;
        const Q t171 = flipped<0, 0, 0, 1>(t140);
        const Q t172 = t154 - t171;
        const Q t173 = c[5] * t170;
        const Q t174 = Q(c[3], c[3], c[3], -c[3]) * t172;
        const Q t175 = t173 - t174;
        const Q t176 = c[3] * t170;
        const Q t177 = Q(c[4], c[4], c[4], -c[4]) * t172;
        const Q t178 = t176 + t177;
        const Q t179 = c[4] * t170;
        const Q t180 = Q(c[5], c[5], c[5], -c[5]) * t172;
        const Q t181 = t179 + t180;
        const Q t182 = t147 + t169;
        const Q t183 = t164 + t156;
        const Q t184 = c[0] * t164;
        const Q t185 = c[1] * t156;
        const Q t186 = t184 - t185;
        const Q t187 = t183 + t182;
        const Q t188 = c[2] * t182;
        const Q t189 = t186 - t188;
        const Q t190 = t147 - t169;
        const Q t191 = shuffled<0, 1, 4, 5>(t134, t135);
        const Q t192 = c[1] * t164;
        const Q t193 = t191 - t192;
        const Q t194 = c[2] * t156;
        const Q t195 = t193 - t194;
        const Q t196 = c[2] * t164;
        const Q t197 = t191 - t196;
        const Q t198 = c[0] * t156;
        const Q t199 = t197 + t198;
        const Q t200 = t187 + t191;
        io.pairs(1, 3, t200);
        const Q t201 = t189 + t191;
        const Q t202 = c[4] * t190;
        const Q t203 = t175 - t202;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = flipped<0, 1, 0, 1>(t204);
        const Q t206 = t201 + t205;
        io.pairs(8, 10, t206);
        const Q t207 = t201 - t205;
        io.pairs(6, 4, negated<0, 1, 0, 1>(t207));
        const Q t208 = c[0] * t182;
        const Q t209 = t195 + t208;
        const Q t210 = c[5] * t190;
        const Q t211 = t178 + t210;
        const Q t212 = shuffled<1, 0, 3, 2>(t211);
        const Q t213 = flipped<0, 1, 0, 1>(t212);
        const Q t214 = t209 + t213;
        io.pairs(15, 17, t214);
        const Q t215 = t209 - t213;
        io.pairs(13, 11, negated<0, 1, 0, 1>(t215));
        const Q t216 = c[1] * t182;
        const Q t217 = t199 - t216;
        const Q t218 = c[3] * t190;
        const Q t219 = t181 - t218;
        const Q t220 = shuffled<1, 0, 3, 2>(t219);
        const Q t221 = flipped<0, 1, 0, 1>(t220);
        const Q t222 = t217 + t221;
        io.pairs(22, 24, t222);
        const Q t223 = t217 - t221;
        io.pairs(20, 18, negated<0, 1, 0, 1>(t223));
        // real block of 7
        const Q t224 = c[1] * t96;
        const Q t225 = t106 - t224;
        const Q t226 = c[2] * t98;
        const Q t227 = t225 - t226;
        const Q t228 = c[0] * t101;
        const Q t229 = t227 + t228;
        const Q t230 = c[3] * t79;
        const Q t231 = c[4] * t82;
        const Q t232 = t230 + t231;
        const Q t233 = c[5] * t85;
        const Q t234 = t232 + t233;
        const P t235 = part<1>(t229);
        const P t236 = part<1>(t234);
        const P t237 = shuffled<1, 3>(t235, t236);
        io.pair(14, negated<0, 1>(t237));
        const Q t238 = shuffled<0, 4, 2, 6>(t57, t62);
        const Q t239 = shuffled<1, 5, 3, 7>(t57, t62);
        const Q t240 = shuffled<2, 3, 4, 5>(t238, t239);
        // real block of 49
        const Q t241 = Q(c[12], c[12], c[10], c[10]) * t240;
        const Q t242 = shuffled<1, 0, 3, 2>(t240);
        const Q t243 = Q(-c[14], c[14], -c[11], c[11]) * t242;
        const Q t244 = t241 + t243;
        const Q t245 = shuffled<0, 4, 2, 6>(t229, t234);
        const Q t246 = shuffled<0, 1, 6, 7>(t245, t239);
        const Q t247 = Q(c[26], c[26], c[6], c[6]) * t246;
        const Q t248 = shuffled<1, 0, 3, 2>(t246);
        const Q t249 = Q(-c[27], c[27], -c[7], c[7]) * t248;
        const Q t250 = t247 + t249;
        const Q t251 = shuffled<1, 5, 3, 7>(t229, t234);
        const Q t252 = shuffled<2, 3, 4, 5>(t245, t251);
        const Q t253 = Q(c[13], c[13], c[28], c[28]) * t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t252);
        const Q t255 = Q(-c[15], c[15], -c[29], c[29]) * t254;
        const Q t256 = t253 + t255;
        const P t257 = part<1>(t244);
        const P t258 = part<0>(t256);
        // complex block of 7
        const P t259 = t257 + t258;
        const P t260 = part<1>(t256);
        const P t261 = part<0>(t244);
        const P t262 = t260 + t261;
        const P t263 = shuffled<0, 3>(t257, t258);
        const P t264 = shuffled<0, 3>(t258, t257);
        const P t265 = t263 - t264;
        const P t266 = shuffled<0, 3>(t260, t261);
        const P t267 = shuffled<0, 3>(t261, t260);
        const P t268 = t266 - t267;
        const P t269 = c[5] * t265;
        const P t270 = c[3] * t268;
        const P t271 = t269 - t270;
        const P t272 = c[3] * t265;
        const P t273 = c[4] * t268;
        const P t274 = t272 + t273;
        const P t275 = c[4] * t265;
        const P t276 = c[5] * t268;
        const P t277 = t275 + t276;
        const P t278 = part<0>(t250);
        const P t279 = part<1>(t250);
        const P t280 = t278 + t279;
        const P t281 = t259 + t262;
        const P t282 = c[0] * t259;
        const V t283 = part<0>(t282);
        const P t284 = c[1] * t262;
        const V t285 = part<0>(t284);
        const V t286 = t283 - t285;
        const P t287 = part<0>(t62);
        const V t288 = part<0>(t287);
        const V t289 = part<1>(t282);
        const V t290 = t288 + t289;
        const P t291 = part<0>(t238);
        const V t292 = part<0>(t291);
        const P t293 = c[1] * t259;
        const V t294 = part<0>(t293);
        const V t295 = t292 - t294;
        const V t296 = part<1>(t293);
        const P t297 = c[2] * t262;
        const V t298 = part<1>(t297);
        const V t299 = t296 + t298;
        const P t300 = c[2] * t259;
        const V t301 = part<0>(t300);
        const V t302 = t292 - t301;
        const V t303 = part<1>(t300);
        const P t304 = c[0] * t262;
        const V t305 = part<1>(t304);
        const V t306 = t303 - t305;
        const P t307 = t281 + t280;
        const P t308 = c[2] * t280;
        const V t309 = part<0>(t308);
        const V t310 = t286 - t309;
        const V t311 = part<1>(t284);
        const V t312 = t311 - t290;
        const V t313 = part<0>(t297);
        const V t314 = t295 - t313;
        const P t315 = c[0] * t280;
        const V t316 = part<1>(t315);
        const V t317 = t299 - t316;
        const V t318 = part<0>(t304);
        const V t319 = t302 + t318;
        const P t320 = c[1] * t280;
        const V t321 = part<1>(t320);
        const V t322 = t306 + t321;
        const P t323 = shuffled<0, 3>(t278, t279);
        const P t324 = shuffled<0, 3>(t279, t278);
        const P t325 = t323 - t324;
        const P t326 = t307 + t291;
        io.pair(2, negated<0, 1>(t326));
        const P t327 = joined(t310, t312);
        const P t328 = shuffled<0, 3>(t291, t308);
        const P t329 = t327 + t328;
        const P t330 = c[4] * t325;
        const P t331 = t271 - t330;
        const P t332 = shuffled<1, 0>(t331);
        const P t333 = flipped<0, 1>(t332);
        const P t334 = t329 + t333;
        io.pair(9, t334);
        const P t335 = t329 - t333;
        io.pair(5, negated<0, 1>(t335));
        const P t336 = joined(t314, t317);
        const P t337 = shuffled<0, 3>(t315, t291);
        const P t338 = flipped<0, 1>(t337);
        const P t339 = t336 + t338;
        const P t340 = c[5] * t325;
        const P t341 = t274 + t340;
        const P t342 = shuffled<1, 0>(t341);
        const P t343 = flipped<0, 1>(t342);
        const P t344 = t339 + t343;
        io.pair(16, t344);
        const P t345 = t339 - t343;
        io.pair(12, negated<0, 1>(t345));
        const P t346 = joined(t319, t322);
        const P t347 = shuffled<0, 3>(t320, t337);
        const P t348 = t346 - t347;
        const P t349 = c[3] * t325;
        const P t350 = t277 - t349;
        const P t351 = shuffled<1, 0>(t350);
        const P t352 = flipped<0, 1>(t351);
        const P t353 = t348 + t352;
        io.pair(23, t353);
        const P t354 = t348 - t352;
        io.pair(19, negated<0, 1>(t354));
    }
};

}  // namespace zulg
