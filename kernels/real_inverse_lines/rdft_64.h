// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 64.
// Inverse DFT to 64 real points, twiddled 16, 4; up to four lanes to a register.
// 64 sums, 44 differences, 53 products of registers, which do the 660 steps of the graph, those with
// `scale` included; 132 shuffles, 24 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<64> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.3826834323650898,  // c[1]: -sin 2 pi 15/16
        0.9238795325112867,  // c[2]: cos 2 pi 15/16
        0.7071067811865476,  // c[3]: cos 2 pi 1/8
        0.8314696123025452,  // c[4]: cos 2 pi 58/64
        0.9807852804032304,  // c[5]: cos 2 pi 62/64
        0.5555702330196022,  // c[6]: -sin 2 pi 58/64
        0.19509032201612828,  // c[7]: -sin 2 pi 62/64
        0.9951847266721969,  // c[8]: cos 2 pi 63/64
        0.0980171403295606,  // c[9]: -sin 2 pi 63/64
        0.9569403357322088,  // c[10]: cos 2 pi 61/64
        0.2902846772544624,  // c[11]: -sin 2 pi 61/64
        0.881921264348355,  // c[12]: cos 2 pi 59/64
        0.47139673682599764,  // c[13]: -sin 2 pi 59/64
        0.773010453362737,  // c[14]: cos 2 pi 57/64
        0.6343932841636455,  // c[15]: -sin 2 pi 57/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const V x0r = io.re(0);
        const V x32r = io.re(32);
        // spectrum block of 2
        const V t0 = x0r + x32r;
        const V t1 = x0r - x32r;
        const P t2 = joined(t0, t1);
        const P x16 = io.pair(16);
        // doubled bins
        const P t3 = P(c[0], -c[0]) * x16;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const Q x1_5 = io.pairs(1, 5);
        // doubled bins
        const Q t6 = c[0] * x1_5;
        const Q x31_27 = io.pairs(31, 27);
        const Q t7 = Q(c[0], -c[0], c[0], -c[0]) * x31_27;
        // complex block of 2
        const Q t8 = t6 + t7;
        const Q t9 = t6 - t7;
        const Q x9_13 = io.pairs(9, 13);
        // doubled bins
        const Q t10 = c[0] * x9_13;
        const Q x23_19 = io.pairs(23, 19);
        const Q t11 = Q(-c[0], c[0], -c[0], c[0]) * x23_19;
        // complex block of 2
        const Q t12 = t10 + t11;
        const Q t13 = t10 - t11;
        const Q x17_21 = io.pairs(17, 21);
        // doubled bins
        const Q t14 = c[0] * x17_21;
        const Q x15_11 = io.pairs(15, 11);
        const Q t15 = Q(c[0], -c[0], c[0], -c[0]) * x15_11;
        // complex block of 2
        const Q t16 = t14 + t15;
        const Q t17 = t14 - t15;
        const Q x25_29 = io.pairs(25, 29);
        // doubled bins
        const Q t18 = c[0] * x25_29;
        const Q x7_3 = io.pairs(7, 3);
        const Q t19 = Q(-c[0], c[0], -c[0], c[0]) * x7_3;
        // complex block of 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        const Q t22 = shuffled<2, 3, 6, 7>(t12, t9);
        // complex block of 16
        const Q t23 = Q(c[1], c[1], c[2], c[2]) * t22;
        const Q t24 = shuffled<1, 0, 3, 2>(t22);
        const Q t25 = Q(-c[2], c[2], -c[1], c[1]) * t24;
        const Q t26 = t23 + t25;
        const Q t27 = shuffled<2, 3, 6, 7>(t20, t17);
        const Q t28 = shuffled<1, 0, 3, 2>(t27);
        const Q t29 = Q(c[1], c[1], c[2], c[2]) * t28;
        const Q t30 = Q(c[2], -c[2], c[1], -c[1]) * t27;
        const Q t31 = t29 + t30;
        const Q t32 = shuffled<2, 3, 6, 7>(t8, t26);
        const Q t33 = shuffled<2, 3, 6, 7>(t16, t31);
        const Q t34 = flipped<0, 0, 1, 0>(t33);
        // complex block of 2
        const Q t35 = t32 - t34;
        const Q t36 = shuffled<2, 3, 4, 5>(t13, t26);
        const Q t37 = shuffled<2, 3, 4, 5>(t21, t31);
        const Q t38 = flipped<0, 0, 1, 0>(t37);
        // complex block of 2
        const Q t39 = t36 - t38;
        // complex block of 2
        const Q t40 = t32 + t34;
        // complex block of 2
        const Q t41 = t36 + t38;
        const Q t42 = shuffled<0, 1, 4, 5>(t20, t12);
        // complex block of 16
        const Q t43 = c[3] * t42;
        const Q t44 = shuffled<1, 0, 3, 2>(t43);
        const Q t45 = flipped<1, 0, 1, 0>(t44);
        const Q t46 = t43 + t45;
        const Q t47 = shuffled<0, 1, 6, 7>(t13, t46);
        const Q t48 = shuffled<1, 0, 3, 2>(t46);
        const Q t49 = shuffled<0, 1, 4, 5>(t21, t48);
        const Q t50 = flipped<0, 0, 1, 0>(t49);
        // complex block of 2
        const Q t51 = t47 + t50;
        const Q t52 = t47 - t50;
        const Q t53 = shuffled<0, 1, 4, 5>(t8, t9);
        const Q t54 = shuffled<1, 0, 3, 2>(t17);
        const Q t55 = shuffled<0, 1, 4, 5>(t16, t54);
        const Q t56 = flipped<0, 0, 1, 0>(t55);
        // complex block of 2
        const Q t57 = t53 + t56;
        const Q t58 = t53 - t56;
        const Q x2_6 = io.pairs(2, 6);
        // doubled bins
        const Q t59 = c[0] * x2_6;
        const Q x30_26 = io.pairs(30, 26);
        const Q t60 = Q(-c[0], c[0], -c[0], c[0]) * x30_26;
        // complex block of 2
        const Q t61 = t59 + t60;
        const Q x10_14 = io.pairs(10, 14);
        // doubled bins
        const Q t62 = c[0] * x10_14;
        const Q x22_18 = io.pairs(22, 18);
        const Q t63 = Q(-c[0], c[0], -c[0], c[0]) * x22_18;
        // complex block of 2
        const Q t64 = t62 + t63;
        // complex block of 2
        const Q t65 = t59 - t60;
        const Q t66 = shuffled<2, 3, 0, 1>(t61);
        // mirrored skew block of 16
        const Q t67 = Q(c[4], c[4], c[5], c[5]) * t66;
        const Q t68 = shuffled<1, 0, 3, 2>(t66);
        const Q t69 = Q(-c[6], c[6], -c[7], c[7]) * t68;
        const Q t70 = t67 + t69;
        // complex block of 2
        const Q t71 = t62 - t63;
        const Q t72 = shuffled<2, 3, 0, 1>(t64);
        // mirrored skew block of 16
        const Q t73 = Q(c[7], c[7], c[6], c[6]) * t72;
        const Q t74 = shuffled<1, 0, 3, 2>(t72);
        const Q t75 = Q(-c[5], c[5], -c[4], c[4]) * t74;
        const Q t76 = t73 + t75;
        const Q t77 = shuffled<0, 1, 6, 7>(t65, t70);
        const Q t78 = shuffled<2, 3, 4, 5>(t71, t76);
        const Q t79 = flipped<0, 1, 0, 1>(t78);
        // complex block of 2
        const Q t80 = t77 + t79;
        const Q t81 = t77 - t79;
        const Q t82 = shuffled<0, 1, 6, 7>(t71, t76);
        const Q t83 = shuffled<2, 3, 4, 5>(t65, t70);
        const Q t84 = flipped<0, 1, 0, 1>(t83);
        // complex block of 2
        const Q t85 = t82 + t84;
        const Q t86 = t82 - t84;
        const Q x4_20 = io.pairs(4, 20);
        // doubled bins
        const Q t87 = c[0] * x4_20;
        const Q x28_12 = io.pairs(28, 12);
        const Q t88 = Q(c[0], -c[0], c[0], -c[0]) * x28_12;
        // complex block of 2
        const Q t89 = t87 + t88;
        const Q t90 = t87 - t88;
        const Q t91 = shuffled<0, 1, 4, 5>(t89, t90);
        const Q t92 = shuffled<1, 0, 3, 2>(t90);
        const Q t93 = shuffled<2, 3, 6, 7>(t89, t92);
        const Q t94 = flipped<0, 0, 1, 0>(t93);
        // complex block of 2
        const Q t95 = t91 + t94;
        const Q t96 = t91 - t94;
        const P t97 = part<0>(t96);
        const P t98 = shuffled<1, 0>(t97);
        const P t99 = flipped<0, 1>(t98);
        // spectrum block of 16
        const P t100 = t97 + t99;
        const P x8 = io.pair(8);
        // doubled bins
        const P t101 = c[0] * x8;
        const V t102 = part<0>(t101);
        const P x24 = io.pair(24);
        const P t103 = c[0] * x24;
        const V t104 = part<0>(t103);
        // mirrored skew block of 4
        const V t105 = t102 - t104;
        const V t106 = part<1>(t101);
        const V t107 = part<1>(t103);
        const V t108 = t106 + t107;
        const V t109 = c[3] * t105;
        const V t110 = c[3] * t108;
        const V t111 = t109 - t110;
        const V t112 = t109 + t110;
        const V t113 = t102 + t104;
        const V t114 = t106 - t107;
        const Q t115 = shuffled<2, 3, 6, 7>(t95, t96);
        // spectrum block of 16
        const Q t116 = Q(c[2], c[2], c[1], c[1]) * t115;
        const Q t117 = shuffled<1, 0, 3, 2>(t115);
        const Q t118 = Q(-c[1], c[1], -c[2], c[2]) * t117;
        const Q t119 = t116 + t118;
        const P t120 = shuffled<0, 2>(t4, t5);
        const P t121 = shuffled<1, 3>(t4, t5);
        const Q t122 = joined(t120, t121);
        const V t123 = flipped<1>(t114);
        const P t124 = joined(t113, t123);
        const V t125 = flipped<1>(t112);
        const P t126 = joined(t111, t125);
        const Q t127 = joined(t124, t126);
        // spectrum block of 2
        const Q t128 = t122 + t127;
        const Q t129 = t122 - t127;
        const P t130 = part<0>(t95);
        // spectrum block of 16
        const P t131 = P(c[3], -c[3]) * t100;
        const P t132 = shuffled<0, 3>(t130, t131);
        const P t133 = part<0>(t119);
        const P t134 = part<1>(t119);
        const P t135 = shuffled<0, 2>(t133, t134);
        const Q t136 = joined(t132, t135);
        // spectrum block of 2
        const Q t137 = t128 + t136;
        const Q t138 = t128 - t136;
        const P t139 = shuffled<1, 2>(t130, t131);
        const P t140 = shuffled<1, 3>(t133, t134);
        const Q t141 = joined(t139, t140);
        // spectrum block of 2
        const Q t142 = t129 - t141;
        const Q t143 = t129 + t141;
        // complex block of 2
        const Q t144 = t57 + t51;
        // complex block of 2
        const Q t145 = t40 + t41;
        // complex block of 2
        const Q t146 = t144 - t145;
        const Q t147 = t144 + t145;
        const P t148 = part<0>(t146);
        const P t149 = shuffled<1, 0>(t148);
        const P t150 = flipped<0, 1>(t149);
        // spectrum block of 64
        const P t151 = t148 + t150;
        // complex block of 2
        const Q t152 = t57 - t51;
        // complex block of 2
        const Q t153 = t40 - t41;
        const Q t154 = shuffled<1, 0, 3, 2>(t153);
        const Q t155 = flipped<0, 1, 0, 1>(t154);
        // complex block of 2
        const Q t156 = t152 + t155;
        const Q t157 = t152 - t155;
        // complex block of 8
        const Q t158 = c[3] * t35;
        const Q t159 = shuffled<1, 0, 3, 2>(t158);
        const Q t160 = flipped<1, 0, 1, 0>(t159);
        const Q t161 = t158 + t160;
        const Q t162 = c[3] * t39;
        const Q t163 = shuffled<1, 0, 3, 2>(t162);
        const Q t164 = flipped<1, 0, 1, 0>(t163);
        const Q t165 = t162 + t164;
        const Q t166 = shuffled<1, 0, 3, 2>(t165);
        const Q t167 = flipped<1, 0, 1, 0>(t166);
        // complex block of 2
        const Q t168 = t161 + t167;
        const Q t169 = t161 - t167;
        const Q t170 = shuffled<1, 0, 3, 2>(t52);
        const Q t171 = flipped<1, 0, 1, 0>(t170);
        // complex block of 2
        const Q t172 = t58 + t171;
        const Q t173 = t58 - t171;
        // complex block of 2
        const Q t174 = t172 + t168;
        const Q t175 = t172 - t168;
        const Q t176 = shuffled<1, 0, 3, 2>(t169);
        const Q t177 = flipped<1, 0, 1, 0>(t176);
        // complex block of 2
        const Q t178 = t173 + t177;
        const Q t179 = t173 - t177;
        // complex block of 2
        const Q t180 = t80 + t85;
        const Q t181 = t80 - t85;
        // mirrored skew block of 8
        const Q t182 = c[3] * t181;
        const Q t183 = shuffled<1, 0, 3, 2>(t182);
        const Q t184 = flipped<0, 1, 0, 1>(t183);
        const Q t185 = t182 + t184;
        const Q t186 = shuffled<1, 0, 3, 2>(t86);
        const Q t187 = flipped<1, 0, 1, 0>(t186);
        // complex block of 2
        const Q t188 = t81 + t187;
        // mirrored skew block of 8
        const Q t189 = c[2] * t188;
        const Q t190 = shuffled<1, 0, 3, 2>(t188);
        const Q t191 = Q(-c[1], c[1], -c[1], c[1]) * t190;
        const Q t192 = t189 + t191;
        // complex block of 2
        const Q t193 = t81 - t187;
        // mirrored skew block of 8
        const Q t194 = c[1] * t193;
        const Q t195 = shuffled<1, 0, 3, 2>(t193);
        const Q t196 = Q(-c[2], c[2], -c[2], c[2]) * t195;
        const Q t197 = t194 + t196;
        const Q t198 = shuffled<2, 3, 4, 5>(t147, t174);
        // spectrum block of 64
        const Q t199 = Q(c[8], c[8], c[5], c[5]) * t198;
        const Q t200 = shuffled<1, 0, 3, 2>(t198);
        const Q t201 = Q(-c[9], c[9], -c[7], c[7]) * t200;
        const Q t202 = t199 + t201;
        const P t203 = part<0>(t137);
        const P t204 = part<0>(t138);
        const P t205 = shuffled<0, 2>(t203, t204);
        const P t206 = part<1>(t137);
        const P t207 = part<0>(t137);
        const P t208 = shuffled<0, 3>(t206, t207);
        const Q t209 = joined(t205, t208);
        const P t210 = part<0>(t180);
        const P t211 = flipped<0, 1>(t210);
        const P t212 = part<1>(t180);
        const P t213 = part<0>(t192);
        const P t214 = shuffled<0, 2>(t212, t213);
        const Q t215 = joined(t211, t214);
        // spectrum block of 2
        const Q t216 = t209 + t215;
        const Q t217 = t209 - t215;
        const P t218 = part<0>(t147);
        // spectrum block of 64
        const P t219 = P(c[3], -c[3]) * t151;
        const P t220 = shuffled<0, 3>(t218, t219);
        const P t221 = part<0>(t202);
        const P t222 = part<1>(t202);
        const P t223 = shuffled<0, 2>(t221, t222);
        const Q t224 = joined(t220, t223);
        // spectrum block of 2
        const Q t225 = t216 + t224;
        io.out(0, 8, 1, 2, t225);
        const Q t226 = t216 - t224;
        io.out(32, 40, 33, 34, t226);
        const P t227 = shuffled<1, 2>(t218, t219);
        const P t228 = shuffled<1, 3>(t221, t222);
        const Q t229 = joined(t227, t228);
        // spectrum block of 2
        const Q t230 = t217 - t229;
        io.out(16, 24, 17, 18, t230);
        const Q t231 = t217 + t229;
        io.out(48, 56, 49, 50, t231);
        const Q t232 = shuffled<2, 3, 4, 5>(t174, t157);
        // spectrum block of 64
        const Q t233 = Q(c[10], c[10], c[2], c[2]) * t232;
        const Q t234 = shuffled<1, 0, 3, 2>(t232);
        const Q t235 = Q(-c[11], c[11], -c[1], c[1]) * t234;
        const Q t236 = t233 + t235;
        const Q t237 = shuffled<2, 3, 4, 5>(t157, t178);
        const Q t238 = Q(c[12], c[12], c[4], c[4]) * t237;
        const Q t239 = shuffled<1, 0, 3, 2>(t237);
        const Q t240 = Q(-c[13], c[13], -c[6], c[6]) * t239;
        const Q t241 = t238 + t240;
        const P t242 = part<0>(t142);
        const P t243 = shuffled<1, 2>(t206, t242);
        const P t244 = part<1>(t142);
        const P t245 = part<0>(t142);
        const P t246 = shuffled<0, 3>(t244, t245);
        const Q t247 = joined(t243, t246);
        const P t248 = part<1>(t192);
        const P t249 = part<0>(t185);
        const P t250 = shuffled<0, 3>(t248, t249);
        const P t251 = flipped<0, 1>(t250);
        const P t252 = part<1>(t185);
        const P t253 = part<0>(t197);
        const P t254 = shuffled<1, 2>(t252, t253);
        const P t255 = flipped<1, 0>(t254);
        const Q t256 = joined(t251, t255);
        // spectrum block of 2
        const Q t257 = t247 + t256;
        const Q t258 = t247 - t256;
        const P t259 = part<0>(t236);
        const P t260 = part<1>(t236);
        const P t261 = shuffled<0, 2>(t259, t260);
        const P t262 = part<0>(t241);
        const P t263 = part<1>(t241);
        const P t264 = shuffled<0, 2>(t262, t263);
        const Q t265 = joined(t261, t264);
        // spectrum block of 2
        const Q t266 = t257 + t265;
        io.out(3, 4, 5, 6, t266);
        const Q t267 = t257 - t265;
        io.out(35, 36, 37, 38, t267);
        const P t268 = shuffled<1, 3>(t259, t260);
        const P t269 = shuffled<1, 3>(t262, t263);
        const Q t270 = joined(t268, t269);
        // spectrum block of 2
        const Q t271 = t258 - t270;
        io.out(19, 20, 21, 22, t271);
        const Q t272 = t258 + t270;
        io.out(51, 52, 53, 54, t272);
        const Q t273 = shuffled<2, 3, 6, 7>(t178, t146);
        // spectrum block of 64
        const Q t274 = Q(c[14], c[14], c[15], c[15]) * t273;
        const Q t275 = shuffled<1, 0, 3, 2>(t273);
        const Q t276 = Q(-c[15], c[15], -c[14], c[14]) * t275;
        const Q t277 = t274 + t276;
        const Q t278 = Q(c[6], c[6], c[13], c[13]) * t175;
        const Q t279 = shuffled<1, 0, 3, 2>(t175);
        const Q t280 = Q(-c[4], c[4], -c[12], c[12]) * t279;
        const Q t281 = t278 + t280;
        const P t282 = part<1>(t138);
        const P t283 = shuffled<1, 2>(t244, t282);
        const P t284 = part<1>(t138);
        const P t285 = shuffled<1, 3>(t204, t284);
        const Q t286 = joined(t283, t285);
        const P t287 = part<1>(t197);
        const P t288 = shuffled<0, 3>(t287, t212);
        const P t289 = flipped<1, 0>(t288);
        const P t290 = shuffled<1, 3>(t213, t248);
        const Q t291 = joined(t289, t290);
        // spectrum block of 2
        const Q t292 = t286 - t291;
        const Q t293 = t286 + t291;
        const P t294 = part<0>(t277);
        const P t295 = part<1>(t277);
        const P t296 = shuffled<0, 2>(t294, t295);
        const P t297 = part<0>(t281);
        const P t298 = part<1>(t281);
        const P t299 = shuffled<0, 2>(t297, t298);
        const Q t300 = joined(t296, t299);
        // spectrum block of 2
        const Q t301 = t292 + t300;
        io.out(7, 9, 10, 11, t301);
        const Q t302 = t292 - t300;
        io.out(39, 41, 42, 43, t302);
        const P t303 = shuffled<1, 3>(t294, t295);
        const P t304 = shuffled<1, 3>(t297, t298);
        const Q t305 = joined(t303, t304);
        // spectrum block of 2
        const Q t306 = t293 - t305;
        io.out(23, 25, 26, 27, t306);
        const Q t307 = t293 + t305;
        io.out(55, 57, 58, 59, t307);
        // spectrum block of 64
        const Q t308 = Q(c[1], c[1], c[11], c[11]) * t156;
        const Q t309 = shuffled<1, 0, 3, 2>(t156);
        const Q t310 = Q(-c[2], c[2], -c[10], c[10]) * t309;
        const Q t311 = t308 + t310;
        const Q t312 = Q(c[7], c[7], c[9], c[9]) * t179;
        const Q t313 = shuffled<1, 0, 3, 2>(t179);
        const Q t314 = Q(-c[5], c[5], -c[8], c[8]) * t313;
        const Q t315 = t312 + t314;
        const P t316 = part<0>(t143);
        const P t317 = part<1>(t143);
        const P t318 = shuffled<0, 2>(t316, t317);
        const P t319 = part<0>(t143);
        const P t320 = part<1>(t143);
        const P t321 = shuffled<1, 3>(t319, t320);
        const Q t322 = joined(t318, t321);
        const P t323 = shuffled<0, 2>(t249, t252);
        const P t324 = shuffled<1, 3>(t253, t287);
        const Q t325 = joined(t323, t324);
        // spectrum block of 2
        const Q t326 = t322 - t325;
        const Q t327 = t322 + t325;
        const P t328 = part<0>(t311);
        const P t329 = part<1>(t311);
        const P t330 = shuffled<0, 2>(t328, t329);
        const P t331 = part<0>(t315);
        const P t332 = part<1>(t315);
        const P t333 = shuffled<0, 2>(t331, t332);
        const Q t334 = joined(t330, t333);
        // spectrum block of 2
        const Q t335 = t326 + t334;
        io.out(12, 13, 14, 15, t335);
        const Q t336 = t326 - t334;
        io.out(44, 45, 46, 47, t336);
        const P t337 = shuffled<1, 3>(t328, t329);
        const P t338 = shuffled<1, 3>(t331, t332);
        const Q t339 = joined(t337, t338);
        // spectrum block of 2
        const Q t340 = t327 - t339;
        io.out(28, 29, 30, 31, t340);
        const Q t341 = t327 + t339;
        io.out(60, 61, 62, 63, t341);
    }
};

}  // namespace zulg
