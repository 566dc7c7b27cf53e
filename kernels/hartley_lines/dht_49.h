// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 49.
// Hartley transform of 49 points, form F; up to four lanes to a register.
// 90 sums, 68 differences, 90 products of registers, which do the 829 steps of the graph, those with
// `scale` included; 122 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<49> {
    static constexpr int steps = 829;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9749279121818236,  // c[2]: -sin 2 pi 5/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.9009688679024191,  // c[4]: -cos 2 pi 4/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.7183493500977276,  // c[6]: cos 2 pi 6/49
        0.6956825506034864,  // c[7]: sin 2 pi 6/49
        0.9269167573460217,  // c[8]: cos 2 pi 3/49
        0.37526700487937414,  // c[9]: sin 2 pi 3/49
        0.9672948630390295,  // c[10]: cos 2 pi 2/49
        0.2536545839095074,  // c[11]: sin 2 pi 2/49
        0.8713187041233893,  // c[12]: cos 2 pi 4/49
        0.4907175520039379,  // c[13]: sin 2 pi 4/49
        0.03205157757165517,  // c[14]: cos 2 pi 12/49
        0.9994862162006879,  // c[15]: sin 2 pi 12/49
        0.9917900138232462,  // c[16]: cos 2 pi 1/49
        0.12787716168450602,  // c[17]: sin 2 pi 1/49
        0.40478334312239383,  // c[18]: cos 2 pi 9/49
        0.9144126230158125,  // c[19]: sin 2 pi 9/49
        0.598110530491216,  // c[20]: sin 2 pi 5/49
        0.3453650544213076,  // c[21]: -cos 2 pi 15/49
        0.8014136218679566,  // c[22]: cos 2 pi 5/49
        0.9384684220497604,  // c[23]: sin 2 pi 15/49
        0.6723008902613168,  // c[24]: -cos 2 pi 18/49
        0.7402779970753155,  // c[25]: sin 2 pi 18/49
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
        const ConstantsOf<Ports, HartleyLines> c{};
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
        const V t18 = part<0>(t15);
        // real block of 7
        const V t19 = t9 + t18;
        const V x4 = io.in(4);
        const V t20 = t19 + x4;
        const V t21 = part<1>(t15);
        // real block of 7
        const V t22 = t12 + t21;
        const V x5 = io.in(5);
        const V t23 = t22 + x5;
        const V x41 = io.in(41);
        const P t24 = joined(x41, t23);
        const V x20 = io.in(20);
        const P t25 = part<1>(t17);
        const V t26 = part<0>(t25);
        const P t27 = joined(x20, t26);
        // real block of 7
        const P t28 = t24 + t27;
        const V x34 = io.in(34);
        const P t29 = joined(x34, t20);
        const V x27 = io.in(27);
        const V t30 = part<1>(t25);
        const P t31 = joined(x27, t30);
        const P t32 = t29 + t31;
        // real block of 7
        const Q t33 = c[0] * t0;
        const Q t34 = c[1] * t1;
        const Q t35 = t33 - t34;
        const Q t36 = c[2] * t3;
        const Q t37 = c[3] * t14;
        const Q t38 = t36 + t37;
        const Q t39 = c[1] * t0;
        const Q t40 = x0_1_2_3 - t39;
        const Q t41 = c[2] * t2;
        const Q t42 = c[3] * t3;
        const Q t43 = t41 + t42;
        const Q t44 = c[4] * t0;
        const Q t45 = x0_1_2_3 - t44;
        const Q t46 = c[2] * t14;
        const Q t47 = c[3] * t2;
        const Q t48 = t46 - t47;
        const V x13 = io.in(13);
        const V x48 = io.in(48);
        // real block of 7
        const V t49 = x13 + x48;
        // real block of 7
        const Q t50 = c[4] * t13;
        const Q t51 = t35 - t50;
        const Q t52 = t51 + x0_1_2_3;
        const Q t53 = c[5] * t2;
        const Q t54 = t38 - t53;
        const Q t55 = c[0] * t1;
        const Q t56 = t45 + t55;
        const Q t57 = c[1] * t13;
        const Q t58 = t56 - t57;
        const Q t59 = c[5] * t3;
        const Q t60 = t48 - t59;
        const Q t61 = shuffled<1, 5, 3, 7>(t52, t54);
        const Q t62 = shuffled<1, 5, 3, 7>(t58, t60);
        const Q t63 = shuffled<0, 1, 4, 5>(t61, t62);
        // real block of 49
        const Q t64 = Q(c[16], c[16], c[8], c[8]) * t63;
        const Q t65 = shuffled<1, 0, 3, 2>(t63);
        const Q t66 = Q(c[17], -c[17], c[9], -c[9]) * t65;
        const Q t67 = t64 + t66;
        const Q t68 = shuffled<0, 4, 2, 6>(t52, t54);
        const Q t69 = shuffled<0, 4, 2, 6>(t58, t60);
        const Q t70 = shuffled<2, 3, 6, 7>(t68, t69);
        const Q t71 = Q(c[10], c[10], c[6], c[6]) * t70;
        const Q t72 = shuffled<1, 0, 3, 2>(t70);
        const Q t73 = Q(c[11], -c[11], c[7], -c[7]) * t72;
        const Q t74 = t71 + t73;
        // real block of 7
        const Q t75 = c[4] * t1;
        const Q t76 = t40 - t75;
        const Q t77 = c[0] * t13;
        const Q t78 = t76 + t77;
        const Q t79 = c[5] * t14;
        const Q t80 = t43 + t79;
        const Q t81 = shuffled<0, 4, 2, 6>(t78, t80);
        const Q t82 = shuffled<1, 5, 3, 7>(t78, t80);
        const Q t83 = shuffled<2, 3, 4, 5>(t81, t82);
        // real block of 49
        const Q t84 = Q(c[12], c[12], c[10], c[10]) * t83;
        const Q t85 = shuffled<1, 0, 3, 2>(t83);
        const Q t86 = Q(-c[13], c[13], -c[11], c[11]) * t85;
        const Q t87 = t84 + t86;
        const V t88 = part<0>(t28);
        // real block of 7
        const V t89 = t49 + t88;
        const V t90 = part<0>(t32);
        const V t91 = t89 + t90;
        const V x6 = io.in(6);
        const V t92 = t91 + x6;
        const P t93 = part<0>(t17);
        const V t94 = part<1>(t93);
        // real block of 7
        const V t95 = t94 + t92;
        const P t96 = joined(t49, t95);
        const Q t97 = joined(t5, t96);
        // real block of 7
        const Q t98 = c[0] * t97;
        const Q t99 = joined(t6, t28);
        const Q t100 = c[1] * t99;
        const Q t101 = t98 - t100;
        const P t102 = joined(x4, x5);
        const V t103 = part<0>(t93);
        const P t104 = joined(x6, t103);
        const Q t105 = joined(t102, t104);
        const Q t106 = c[1] * t97;
        const Q t107 = t105 - t106;
        const Q t108 = c[4] * t97;
        const Q t109 = t105 - t108;
        const P t110 = joined(x13, t94);
        const Q t111 = joined(x11_12, t110);
        const P t112 = joined(x48, t92);
        const Q t113 = joined(x46_47, t112);
        const Q t114 = t111 - t113;
        const Q t115 = joined(x39_40, t24);
        const Q t116 = joined(x18_19, t27);
        const Q t117 = t115 - t116;
        const Q t118 = joined(x32_33, t29);
        const Q t119 = joined(x25_26, t31);
        const Q t120 = t118 - t119;
        const Q t121 = c[2] * t117;
        const Q t122 = c[3] * t120;
        const Q t123 = t121 + t122;
        const V t124 = part<1>(t28);
        // real block of 7
        const V t125 = t95 + t124;
        const V t126 = part<1>(t32);
        const V t127 = t125 + t126;
        const V t128 = t127 + t103;
        io.out(0, t128);
        const Q t129 = joined(t15, t32);
        // real block of 7
        const Q t130 = c[4] * t129;
        const Q t131 = t101 - t130;
        const Q t132 = t131 + t105;
        const Q t133 = c[5] * t114;
        const Q t134 = t123 - t133;
        const Q t135 = c[0] * t99;
        const Q t136 = t109 + t135;
        const Q t137 = c[1] * t129;
        const Q t138 = t136 - t137;
        const Q t139 = c[2] * t120;
        const Q t140 = c[3] * t114;
        const Q t141 = t139 - t140;
        const Q t142 = c[5] * t117;
        const Q t143 = t141 - t142;
        const Q t144 = shuffled<2, 3, 6, 7>(t61, t62);
        // real block of 49
        const Q t145 = Q(c[8], c[8], c[18], c[18]) * t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t144);
        const Q t147 = Q(c[9], -c[9], c[19], -c[19]) * t146;
        const Q t148 = t145 + t147;
        const Q t149 = shuffled<0, 4, 2, 6>(t132, t134);
        const Q t150 = shuffled<0, 4, 2, 6>(t138, t143);
        const Q t151 = shuffled<0, 1, 4, 5>(t149, t150);
        const Q t152 = Q(c[12], c[12], c[14], c[14]) * t151;
        const Q t153 = shuffled<1, 0, 3, 2>(t151);
        const Q t154 = Q(c[13], -c[13], c[15], -c[15]) * t153;
        const Q t155 = t152 + t154;
        // complex block of 7
        const Q t156 = t155 + t148;
        const Q t157 = t155 - t148;
        const Q t158 = shuffled<1, 5, 3, 7>(t134, t132);
        const Q t159 = shuffled<1, 5, 3, 7>(t138, t143);
        const Q t160 = shuffled<0, 1, 4, 5>(t158, t159);
        // real block of 49
        const Q t161 = Q(c[20], -c[20], -c[21], c[21]) * t160;
        const Q t162 = shuffled<1, 0, 3, 2>(t160);
        const Q t163 = Q(c[22], c[22], c[23], c[23]) * t162;
        const Q t164 = t161 + t163;
        const Q t165 = flipped<0, 0, 0, 1>(t164);
        // complex block of 7
        const Q t166 = t74 + t165;
        const Q t167 = flipped<0, 0, 0, 1>(t74);
        const Q t168 = t164 - t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t149);
        const Q t170 = shuffled<2, 3, 6, 7>(t169, t150);
        // real block of 49
        const Q t171 = Q(c[7], -c[7], -c[24], c[24]) * t170;
        const Q t172 = shuffled<1, 0, 3, 2>(t170);
        const Q t173 = Q(c[6], c[6], c[25], c[25]) * t172;
        const Q t174 = t171 + t173;
        const Q t175 = flipped<0, 0, 0, 1>(t174);
        // complex block of 7
        const Q t176 = t67 + t175;
        const Q t177 = t67 - t175;
        const Q t178 = t176 + t166;
        const Q t179 = t178 + t156;
        const Q t180 = c[0] * t176;
        const Q t181 = c[1] * t166;
        const Q t182 = t180 - t181;
        const Q t183 = c[4] * t156;
        const Q t184 = t182 - t183;
        const Q t185 = shuffled<0, 1, 4, 5>(t68, t69);
        const Q t186 = t184 + t185;
        const Q t187 = c[5] * t177;
        const Q t188 = Q(c[2], c[2], c[2], -c[2]) * t168;
        const Q t189 = t187 - t188;
        const Q t190 = c[3] * t157;
        const Q t191 = t189 - t190;
        const Q t192 = c[1] * t176;
        const Q t193 = t185 - t192;
        const Q t194 = c[4] * t166;
        const Q t195 = t193 - t194;
        const Q t196 = c[0] * t156;
        const Q t197 = t195 + t196;
        const Q t198 = c[2] * t177;
        const Q t199 = Q(c[3], c[3], c[3], -c[3]) * t168;
        const Q t200 = t198 + t199;
        const Q t201 = c[5] * t157;
        const Q t202 = t200 + t201;
        const Q t203 = c[4] * t176;
        const Q t204 = t185 - t203;
        const Q t205 = c[0] * t166;
        const Q t206 = t204 + t205;
        const Q t207 = c[1] * t156;
        const Q t208 = t206 - t207;
        const Q t209 = c[3] * t177;
        const Q t210 = Q(c[5], c[5], c[5], -c[5]) * t168;
        const Q t211 = t209 + t210;
        const Q t212 = c[2] * t157;
        const Q t213 = t211 - t212;
        const Q t214 = t179 + t185;
        const Q t215 = shuffled<1, 0, 3, 2>(t191);
        const Q t216 = flipped<0, 1, 0, 1>(t215);
        const Q t217 = t186 + t216;
        const Q t218 = shuffled<0, 4, 2, 6>(t214, t217);
        const Q t219 = shuffled<1, 5, 3, 7>(t214, t217);
        // output stage
        const Q t220 = t218 - t219;
        io.out(1, 8, 3, 10, t220);
        const Q t221 = t218 + t219;
        io.out(48, 41, 46, 39, t221);
        // complex block of 7
        const Q t222 = t186 - t216;
        const Q t223 = shuffled<1, 0, 3, 2>(t202);
        const Q t224 = flipped<0, 1, 0, 1>(t223);
        const Q t225 = t197 + t224;
        const P t226 = part<1>(t222);
        const P t227 = part<0>(t225);
        const P t228 = shuffled<0, 2>(t226, t227);
        const P t229 = part<0>(t222);
        const P t230 = part<1>(t225);
        const P t231 = shuffled<0, 2>(t229, t230);
        const Q t232 = joined(t228, t231);
        const P t233 = shuffled<1, 3>(t226, t227);
        const P t234 = shuffled<1, 3>(t229, t230);
        const Q t235 = joined(t233, t234);
        // output stage
        const Q t236 = t232 - t235;
        io.out(45, 15, 43, 17, t236);
        const Q t237 = t232 + t235;
        io.out(4, 34, 6, 32, t237);
        // complex block of 7
        const Q t238 = t197 - t224;
        const Q t239 = shuffled<1, 0, 3, 2>(t213);
        const Q t240 = flipped<0, 1, 0, 1>(t239);
        const Q t241 = t208 + t240;
        const P t242 = part<1>(t238);
        const P t243 = part<0>(t241);
        const P t244 = shuffled<0, 2>(t242, t243);
        const P t245 = part<0>(t238);
        const P t246 = part<1>(t241);
        const P t247 = shuffled<0, 2>(t245, t246);
        const Q t248 = joined(t244, t247);
        const P t249 = shuffled<1, 3>(t242, t243);
        const P t250 = shuffled<1, 3>(t245, t246);
        const Q t251 = joined(t249, t250);
        // output stage
        const Q t252 = t248 - t251;
        io.out(38, 22, 36, 24, t252);
        const Q t253 = t248 + t251;
        io.out(11, 27, 13, 25, t253);
        // complex block of 7
        const Q t254 = t208 - t240;
        const P t255 = part<1>(t254);
        const P t256 = part<0>(t254);
        const P t257 = shuffled<0, 2>(t255, t256);
        const P t258 = shuffled<1, 3>(t255, t256);
        // output stage
        const P t259 = t257 + t258;
        io.out(18, 20, t259);
        const P t260 = t257 - t258;
        io.out(31, 29, t260);
        const P t261 = part<1>(t158);
        const V t262 = part<1>(t261);
        const V t263 = part<0>(t261);
        const V t264 = t262 - t263;
        io.out(7, t264);
        const V t265 = t262 + t263;
        io.out(42, t265);
        const P t266 = part<1>(t159);
        const V t267 = part<0>(t266);
        const V t268 = part<1>(t266);
        const V t269 = t267 - t268;
        io.out(21, t269);
        const V t270 = t267 + t268;
        io.out(28, t270);
        // real block of 7
        const Q t271 = c[4] * t99;
        const Q t272 = t107 - t271;
        const Q t273 = c[0] * t129;
        const Q t274 = t272 + t273;
        const Q t275 = c[2] * t114;
        const Q t276 = c[3] * t117;
        const Q t277 = t275 + t276;
        const Q t278 = c[5] * t120;
        const Q t279 = t277 + t278;
        const Q t280 = shuffled<0, 4, 2, 6>(t274, t279);
        const Q t281 = shuffled<0, 1, 6, 7>(t280, t82);
        // real block of 49
        const Q t282 = Q(c[26], c[26], c[6], c[6]) * t281;
        const Q t283 = shuffled<1, 0, 3, 2>(t281);
        const Q t284 = Q(-c[27], c[27], -c[7], c[7]) * t283;
        const Q t285 = t282 + t284;
        const P t286 = part<0>(t285);
        const P t287 = part<1>(t285);
        // complex block of 7
        const P t288 = t286 + t287;
        const P t289 = shuffled<0, 3>(t286, t287);
        const P t290 = shuffled<0, 3>(t287, t286);
        const P t291 = t289 - t290;
        const Q t292 = shuffled<1, 5, 3, 7>(t274, t279);
        const Q t293 = shuffled<2, 3, 4, 5>(t280, t292);
        // real block of 49
        const Q t294 = Q(c[14], c[14], c[28], c[28]) * t293;
        const Q t295 = shuffled<1, 0, 3, 2>(t293);
        const Q t296 = Q(-c[15], c[15], -c[29], c[29]) * t295;
        const Q t297 = t294 + t296;
        const P t298 = part<1>(t87);
        const P t299 = part<0>(t297);
        // complex block of 7
        const P t300 = t298 + t299;
        const P t301 = part<1>(t297);
        const P t302 = part<0>(t87);
        const P t303 = t301 + t302;
        const P t304 = shuffled<0, 3>(t298, t299);
        const P t305 = shuffled<0, 3>(t299, t298);
        const P t306 = t304 - t305;
        const P t307 = shuffled<0, 3>(t301, t302);
        const P t308 = shuffled<0, 3>(t302, t301);
        const P t309 = t307 - t308;
        const P t310 = t300 + t303;
        const P t311 = t310 + t288;
        const P t312 = c[0] * t300;
        const V t313 = part<0>(t312);
        const P t314 = c[1] * t303;
        const V t315 = part<0>(t314);
        const V t316 = t313 - t315;
        const P t317 = c[4] * t288;
        const V t318 = part<0>(t317);
        const V t319 = t316 - t318;
        const P t320 = part<0>(t80);
        const V t321 = part<0>(t320);
        const V t322 = part<1>(t312);
        const V t323 = t321 + t322;
        const V t324 = part<1>(t314);
        const V t325 = t324 - t323;
        const P t326 = joined(t319, t325);
        const P t327 = part<0>(t81);
        const P t328 = shuffled<0, 3>(t327, t317);
        const P t329 = t326 + t328;
        const P t330 = c[5] * t306;
        const P t331 = c[2] * t309;
        const P t332 = t330 - t331;
        const P t333 = c[3] * t291;
        const P t334 = t332 - t333;
        const V t335 = part<0>(t328);
        const P t336 = c[1] * t300;
        const V t337 = part<0>(t336);
        const V t338 = t335 - t337;
        const P t339 = c[4] * t303;
        const V t340 = part<0>(t339);
        const V t341 = t338 - t340;
        const V t342 = part<1>(t336);
        const V t343 = part<1>(t339);
        const V t344 = t342 + t343;
        const P t345 = c[0] * t288;
        const V t346 = part<1>(t345);
        const V t347 = t344 - t346;
        const P t348 = joined(t341, t347);
        const P t349 = shuffled<0, 3>(t345, t327);
        const P t350 = flipped<0, 1>(t349);
        const P t351 = t348 + t350;
        const P t352 = c[2] * t306;
        const P t353 = c[3] * t309;
        const P t354 = t352 + t353;
        const P t355 = c[5] * t291;
        const P t356 = t354 + t355;
        const P t357 = c[4] * t300;
        const V t358 = part<0>(t357);
        const V t359 = t335 - t358;
        const P t360 = c[0] * t303;
        const V t361 = part<0>(t360);
        const V t362 = t359 + t361;
        const V t363 = part<1>(t357);
        const V t364 = part<1>(t360);
        const V t365 = t363 - t364;
        const P t366 = c[1] * t288;
        const V t367 = part<1>(t366);
        const V t368 = t365 + t367;
        const P t369 = joined(t362, t368);
        const P t370 = shuffled<0, 3>(t366, t349);
        const P t371 = t369 - t370;
        const P t372 = c[3] * t306;
        const P t373 = c[5] * t309;
        const P t374 = t372 + t373;
        const P t375 = c[2] * t291;
        const P t376 = t374 - t375;
        const P t377 = t311 + t327;
        const P t378 = shuffled<1, 0>(t334);
        const P t379 = flipped<0, 1>(t378);
        const P t380 = t329 + t379;
        const P t381 = shuffled<0, 2>(t377, t380);
        const P t382 = shuffled<1, 3>(t377, t380);
        // output stage
        const P t383 = t381 - t382;
        io.out(47, 9, t383);
        const P t384 = t381 + t382;
        io.out(2, 40, t384);
        // complex block of 7
        const P t385 = t329 - t379;
        const P t386 = shuffled<1, 0>(t356);
        const P t387 = flipped<0, 1>(t386);
        const P t388 = t351 + t387;
        const P t389 = shuffled<0, 2>(t385, t388);
        const P t390 = shuffled<1, 3>(t385, t388);
        // output stage
        const P t391 = t389 - t390;
        io.out(44, 16, t391);
        const P t392 = t389 + t390;
        io.out(5, 33, t392);
        // complex block of 7
        const P t393 = t351 - t387;
        const P t394 = shuffled<1, 0>(t376);
        const P t395 = flipped<0, 1>(t394);
        const P t396 = t371 + t395;
        const P t397 = shuffled<0, 2>(t393, t396);
        const P t398 = shuffled<1, 3>(t393, t396);
        // output stage
        const P t399 = t397 - t398;
        io.out(37, 23, t399);
        const P t400 = t397 + t398;
        io.out(12, 26, t400);
        // complex block of 7
        const P t401 = t371 - t395;
        const V t402 = part<0>(t401);
        const V t403 = part<1>(t401);
        // output stage
        const V t404 = t402 + t403;
        io.out(19, t404);
        const V t405 = t402 - t403;
        io.out(30, t405);
        const P t406 = part<1>(t292);
        const V t407 = part<0>(t406);
        const V t408 = part<1>(t406);
        const V t409 = t407 + t408;
        io.out(14, t409);
        const V t410 = t407 - t408;
        io.out(35, t410);
    }
};

}  // namespace zulg
