// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 63.
// Inverse DFT to 63 real points, prime-factor 9, 7; up to four lanes to a register.
// 88 sums, 64 differences, 112 products of registers, which do the 912 steps of the graph, those with
// `scale` included; 81 shuffles, 26 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<63> {
    static constexpr int steps = 912;  // with `scale`
    static constexpr double inverseRoot = 0.1259881576697424;  // 1/sqrt(63), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.6234898018587335,  // c[3]: cos 2 pi 1/7
        0.2225209339563144,  // c[4]: -cos 2 pi 2/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.9749279121818236,  // c[6]: sin 2 pi 2/7
        0.4338837391175581,  // c[7]: sin 2 pi 3/7
        0.9009688679024191,  // c[8]: -cos 2 pi 3/7
        0.3420201433256687,  // c[9]: sin 2 pi 4/9
        0.9396926207859084,  // c[10]: -cos 2 pi 4/9
        0.17364817766693036,  // c[11]: cos 2 pi 2/9
        0.984807753012208,  // c[12]: sin 2 pi 2/9
        0.6427876096865394,  // c[13]: sin 2 pi 1/9
        0.766044443118978,  // c[14]: cos 2 pi 1/9
        1.7320508075688772,  // c[15]: sin 2 pi 1/3 times 2
        0.1503837331804353,  // c[16]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8137976813493737,  // c[17]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.8528685319524432,  // c[18]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[19]: sin 2 pi 1/3 times sin 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const P x21 = io.pair(21);
        const V t0 = part<0>(x21);
        // doubled bins
        const V t1 = c[0] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3
        const V t2 = t1 + x0r;
        const P x28 = io.pair(28);
        // doubled bins
        const P t3 = c[0] * x28;
        const P x14 = io.pair(14);
        const P t4 = P(c[0], -c[0]) * x14;
        // complex block of 3
        const P t5 = t3 + t4;
        const P x7 = io.pair(7);
        // doubled bins
        const P t6 = c[0] * x7;
        // complex block of 3
        const P t7 = t5 + t6;
        const P t8 = t3 - t4;
        const P t9 = c[1] * t5;
        const P t10 = t6 - t9;
        const P t11 = P(c[2], -c[2]) * t8;
        const P t12 = shuffled<1, 0>(t11);
        const P t13 = t10 + t12;
        const P t14 = t10 - t12;
        const P t15 = shuffled<0, 3>(t13, t14);
        // spectrum block of 9, multiplier 7
        const P t16 = P(c[11], c[9]) * t15;
        const P t17 = shuffled<1, 2>(t13, t14);
        const P t18 = P(c[12], -c[10]) * t17;
        const P t19 = t16 + t18;
        const V t20 = part<0>(t7);
        // spectrum block of 3
        const V t21 = t20 + t2;
        const P t22 = joined(x0r, t2);
        const P t23 = joined(t1, t20);
        // spectrum block of 3
        const P t24 = c[1] * t23;
        const P t25 = t22 - t24;
        const P t26 = shuffled<1, 3>(x21, t7);
        const P t27 = P(c[15], c[2]) * t26;
        const P t28 = t25 - t27;
        const P t29 = t25 + t27;
        const P x20 = io.pair(20);
        // doubled bins
        const P t30 = c[0] * x20;
        const P x1 = io.pair(1);
        const P t31 = P(c[0], -c[0]) * x1;
        // complex block of 3
        const P t32 = t30 + t31;
        const Q x6_13 = io.pairs(6, 13);
        // doubled bins
        const Q t33 = c[0] * x6_13;
        const Q x15_8 = io.pairs(15, 8);
        const Q t34 = Q(c[0], -c[0], c[0], -c[0]) * x15_8;
        // complex block of 3
        const Q t35 = t33 + t34;
        const Q t36 = flipped<0, 1, 0, 1>(t34);
        const Q t37 = flipped<1, 0, 1, 0>(t33);
        const Q t38 = t36 + t37;
        const Q x27_29 = io.pairs(27, 29);
        // doubled bins
        const Q t39 = Q(c[0], c[0], c[0], -c[0]) * x27_29;
        // complex block of 3
        const Q t40 = t35 + t39;
        const P x22 = io.pair(22);
        // doubled bins
        const P t41 = P(c[0], -c[0]) * x22;
        // complex block of 3
        const P t42 = t32 + t41;
        const P t43 = part<1>(t40);
        const V t44 = part<1>(t43);
        const V t45 = part<1>(t42);
        // complex block of 3
        const V t46 = t44 + t45;
        const V t47 = part<0>(t43);
        const V t48 = part<0>(t42);
        const V t49 = t47 + t48;
        const Q t50 = flipped<0, 0, 0, 1>(t39);
        // complex block of 3
        const Q t51 = Q(c[1], c[1], c[1], -c[1]) * t35;
        const Q t52 = t50 - t51;
        const Q t53 = c[2] * t38;
        const Q t54 = shuffled<1, 0, 3, 2>(t53);
        const Q t55 = flipped<0, 0, 0, 1>(t52);
        const Q t56 = t54 + t55;
        const Q t57 = flipped<0, 0, 0, 1>(t54);
        const Q t58 = t52 - t57;
        const P t59 = flipped<0, 1>(t31);
        const Q t60 = joined(t59, t43);
        const P t61 = flipped<0, 1>(t30);
        const Q t62 = joined(t61, t42);
        // complex block of 3
        const Q t63 = t60 - t62;
        const P t64 = flipped<0, 1>(t41);
        const P t65 = part<0>(t40);
        const Q t66 = joined(t64, t65);
        const P t67 = joined(t49, t46);
        const Q t68 = joined(t32, t67);
        const Q t69 = Q(c[1], -c[1], c[1], c[1]) * t68;
        const Q t70 = t66 - t69;
        const Q t71 = flipped<0, 1, 0, 0>(t70);
        const Q t72 = Q(c[2], c[2], c[2], -c[2]) * t63;
        const Q t73 = shuffled<1, 0, 3, 2>(t72);
        const Q t74 = t71 + t73;
        const Q t75 = flipped<1, 0, 1, 1>(t73);
        const Q t76 = t70 + t75;
        const Q x2_11 = io.pairs(2, 11);
        // doubled bins
        const Q t77 = c[0] * x2_11;
        const Q x19_10 = io.pairs(19, 10);
        const Q t78 = Q(c[0], -c[0], c[0], -c[0]) * x19_10;
        // complex block of 3
        const Q t79 = t77 + t78;
        const Q t80 = flipped<0, 1, 0, 1>(t78);
        const Q t81 = flipped<1, 0, 1, 0>(t77);
        const Q t82 = t80 + t81;
        const Q x23_31 = io.pairs(23, 31);
        // doubled bins
        const Q t83 = Q(c[0], c[0], c[0], -c[0]) * x23_31;
        // complex block of 3
        const Q t84 = t79 + t83;
        const Q t85 = flipped<0, 0, 0, 1>(t83);
        const Q t86 = Q(c[1], c[1], c[1], -c[1]) * t79;
        const Q t87 = t85 - t86;
        const Q x30_24 = io.pairs(30, 24);
        // doubled bins
        const Q t88 = c[0] * x30_24;
        const Q x12_3 = io.pairs(12, 3);
        const Q t89 = Q(c[0], -c[0], c[0], c[0]) * x12_3;
        // complex block of 3
        const Q t90 = t88 + t89;
        const Q t91 = flipped<1, 1, 1, 0>(t89);
        const Q t92 = flipped<0, 0, 0, 1>(t88);
        const Q t93 = t91 + t92;
        const Q x5_4 = io.pairs(5, 4);
        // doubled bins
        const Q t94 = c[0] * x5_4;
        const Q x26_17 = io.pairs(26, 17);
        const Q t95 = Q(c[0], c[0], c[0], -c[0]) * x26_17;
        // complex block of 3
        const Q t96 = t94 + t95;
        const Q t97 = shuffled<0, 5, 2, 7>(t95, t94);
        const Q t98 = shuffled<0, 5, 2, 7>(t94, t95);
        const Q t99 = t97 - t98;
        const Q t100 = flipped<0, 1, 0, 0>(t96);
        const Q x16_25 = io.pairs(16, 25);
        // doubled bins
        const Q t101 = c[0] * x16_25;
        // complex block of 3
        const Q t102 = t100 + t101;
        const Q t103 = Q(c[1], -c[1], c[1], c[1]) * t96;
        const Q t104 = t101 - t103;
        const Q x9_18 = io.pairs(9, 18);
        // doubled bins
        const Q t105 = c[0] * x9_18;
        const Q t106 = flipped<0, 0, 0, 1>(t90);
        // complex block of 3
        const Q t107 = t105 + t106;
        // complex block of 3
        const Q t108 = t102 + t84;
        const Q t109 = t108 + t107;
        const Q t110 = c[1] * t108;
        const Q t111 = t107 - t110;
        // complex block of 3
        const Q t112 = Q(c[1], c[1], c[1], -c[1]) * t90;
        const Q t113 = t105 - t112;
        const Q t114 = Q(c[2], -c[2], c[2], -c[2]) * t93;
        const Q t115 = shuffled<1, 0, 3, 2>(t114);
        const Q t116 = t113 + t115;
        const Q t117 = t113 - t115;
        // complex block of 3
        const Q t118 = Q(c[2], -c[2], c[2], c[2]) * t99;
        const Q t119 = shuffled<1, 0, 3, 2>(t118);
        const Q t120 = t104 + t119;
        // complex block of 3
        const Q t121 = c[2] * t82;
        const Q t122 = shuffled<1, 0, 3, 2>(t121);
        const Q t123 = flipped<0, 0, 0, 1>(t87);
        const Q t124 = t122 + t123;
        // complex block of 9, multiplier 7
        const Q t125 = c[11] * t120;
        const Q t126 = shuffled<1, 0, 3, 2>(t120);
        const Q t127 = Q(c[12], -c[12], c[12], -c[12]) * t126;
        const Q t128 = t125 + t127;
        const Q t129 = Q(-c[10], c[10], -c[10], c[10]) * t124;
        const Q t130 = shuffled<1, 0, 3, 2>(t124);
        const Q t131 = c[9] * t130;
        const Q t132 = t129 + t131;
        const Q t133 = flipped<0, 1, 0, 1>(t132);
        // complex block of 3
        const Q t134 = t128 + t133;
        // complex block of 3
        const Q t135 = t104 - t119;
        const Q t136 = flipped<0, 0, 0, 1>(t122);
        // complex block of 3
        const Q t137 = t87 - t136;
        // complex block of 9, multiplier 7
        const Q t138 = Q(-c[10], c[10], -c[10], c[10]) * t135;
        const Q t139 = shuffled<1, 0, 3, 2>(t135);
        const Q t140 = c[9] * t139;
        const Q t141 = t138 + t140;
        const Q t142 = shuffled<1, 0, 3, 2>(t137);
        const Q t143 = Q(-c[13], c[13], c[13], c[13]) * t142;
        const Q t144 = Q(c[14], c[14], c[14], -c[14]) * t137;
        const Q t145 = t143 + t144;
        const Q t146 = flipped<0, 1, 0, 1>(t141);
        // complex block of 3
        const Q t147 = t145 + t146;
        // complex block of 3
        const Q t148 = t102 - t84;
        const P t149 = shuffled<0, 2>(t28, t29);
        // spectrum block of 3
        const P t150 = t19 + t149;
        // complex block of 3
        const Q t151 = Q(c[2], -c[2], c[2], -c[2]) * t148;
        const Q t152 = shuffled<1, 0, 3, 2>(t151);
        const Q t153 = t111 + t152;
        // complex block of 3
        const Q t154 = t134 + t116;
        // complex block of 3
        const Q t155 = t147 + t117;
        const Q t156 = shuffled<0, 4, 2, 6>(t109, t154);
        const Q t157 = shuffled<0, 4, 2, 6>(t155, t153);
        const Q t158 = shuffled<0, 1, 4, 5>(t156, t157);
        const Q t159 = shuffled<2, 3, 6, 7>(t156, t157);
        // spectrum block of 7, multiplier 2
        const Q t160 = t158 + t159;
        const Q t161 = c[3] * t158;
        const Q t162 = c[4] * t159;
        const Q t163 = t161 - t162;
        const Q t164 = shuffled<1, 5, 3, 7>(t109, t154);
        const Q t165 = shuffled<1, 5, 3, 7>(t155, t153);
        const Q t166 = shuffled<0, 1, 4, 5>(t164, t165);
        const Q t167 = c[5] * t166;
        const Q t168 = shuffled<2, 3, 6, 7>(t164, t165);
        const Q t169 = c[6] * t168;
        const Q t170 = t167 + t169;
        const V t171 = part<0>(t150);
        const P t172 = joined(t21, t171);
        const P t173 = shuffled<1, 3>(t150, t28);
        const Q t174 = joined(t172, t173);
        const Q t175 = c[4] * t158;
        const Q t176 = t174 - t175;
        const Q t177 = c[6] * t166;
        const Q t178 = c[7] * t168;
        const Q t179 = t177 - t178;
        const Q t180 = c[8] * t158;
        const Q t181 = t174 - t180;
        const Q t182 = c[7] * t166;
        const Q t183 = c[5] * t168;
        const Q t184 = t182 - t183;
        // spectrum block of 3
        const P t185 = c[1] * t19;
        const P t186 = t149 - t185;
        const P t187 = shuffled<0, 3>(t17, t15);
        const P t188 = P(c[16], c[17]) * t187;
        const P t189 = shuffled<0, 3>(t15, t17);
        const P t190 = P(-c[18], c[19]) * t189;
        const P t191 = t188 + t190;
        const P t192 = flipped<1, 0>(t191);
        const P t193 = t186 + t192;
        const P t194 = t186 - t192;
        // complex block of 3
        const Q t195 = t111 - t152;
        // complex block of 3
        const Q t196 = t128 - t133;
        const Q t197 = c[1] * t134;
        const Q t198 = t116 - t197;
        const Q t199 = flipped<1, 0, 1, 0>(t145);
        // complex block of 3
        const Q t200 = t141 + t199;
        const Q t201 = c[1] * t147;
        const Q t202 = t117 - t201;
        // complex block of 3
        const Q t203 = Q(c[2], -c[2], c[2], -c[2]) * t196;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = t198 + t204;
        const Q t206 = t198 - t204;
        // complex block of 3
        const Q t207 = c[2] * t200;
        const Q t208 = shuffled<1, 0, 3, 2>(t207);
        const Q t209 = t202 + t208;
        const Q t210 = t202 - t208;
        // complex block of 3
        const P t211 = t67 + t65;
        const Q t212 = shuffled<1, 0, 3, 2>(t74);
        const Q t213 = shuffled<0, 1, 6, 7>(t212, t58);
        // complex block of 9, multiplier 7
        const Q t214 = Q(c[9], c[9], c[10], c[10]) * t213;
        const Q t215 = shuffled<1, 0, 3, 2>(t213);
        const Q t216 = Q(-c[10], c[10], c[9], -c[9]) * t215;
        const Q t217 = t214 + t216;
        const Q t218 = shuffled<2, 3, 4, 5>(t56, t76);
        const Q t219 = shuffled<1, 0, 3, 2>(t218);
        const Q t220 = Q(c[12], -c[12], c[13], c[13]) * t219;
        const Q t221 = Q(c[11], c[11], c[14], -c[14]) * t218;
        const Q t222 = t220 + t221;
        const Q t223 = flipped<0, 1, 1, 0>(t217);
        // complex block of 3
        const Q t224 = t223 + t222;
        const Q t225 = flipped<1, 1, 1, 0>(t223);
        const Q t226 = flipped<0, 0, 0, 1>(t222);
        const Q t227 = t225 + t226;
        const Q t228 = shuffled<0, 1, 4, 5>(t56, t58);
        const Q t229 = t224 + t228;
        const Q t230 = c[1] * t224;
        const Q t231 = t228 - t230;
        const Q t232 = Q(-c[2], c[2], c[2], c[2]) * t227;
        const Q t233 = shuffled<1, 0, 3, 2>(t232);
        const Q t234 = t231 - t233;
        const Q t235 = t231 + t233;
        const P t236 = part<0>(t229);
        const P t237 = shuffled<0, 2>(t211, t236);
        const P t238 = part<1>(t229);
        const P t239 = part<1>(t212);
        const P t240 = shuffled<0, 3>(t238, t239);
        const Q t241 = joined(t237, t240);
        // spectrum block of 7, multiplier 2
        const Q t242 = t160 + t241;
        const Q t243 = t242 + t174;
        io.out(0, 7, 14, 21, t243);
        const Q t244 = c[8] * t241;
        const Q t245 = t163 - t244;
        const Q t246 = t245 + t174;
        const P t247 = shuffled<1, 3>(t211, t236);
        const P t248 = shuffled<1, 2>(t238, t239);
        const Q t249 = joined(t247, t248);
        const Q t250 = c[7] * t249;
        const Q t251 = t170 + t250;
        const Q t252 = t246 - t251;
        io.out(36, 43, 50, 57, t252);
        const Q t253 = t246 + t251;
        io.out(27, 34, 41, 48, t253);
        const Q t254 = c[8] * t159;
        const Q t255 = t176 - t254;
        const Q t256 = c[3] * t241;
        const Q t257 = t255 + t256;
        const Q t258 = c[5] * t249;
        const Q t259 = t179 - t258;
        const Q t260 = t257 - t259;
        io.out(9, 16, 23, 30, t260);
        const Q t261 = t257 + t259;
        io.out(54, 61, 5, 12, t261);
        const Q t262 = c[3] * t159;
        const Q t263 = t181 + t262;
        const Q t264 = c[4] * t241;
        const Q t265 = t263 - t264;
        const Q t266 = c[6] * t249;
        const Q t267 = t184 + t266;
        const Q t268 = t265 - t267;
        io.out(45, 52, 59, 3, t268);
        const Q t269 = t265 + t267;
        io.out(18, 25, 32, 39, t269);
        const Q t270 = shuffled<0, 4, 2, 6>(t205, t209);
        const Q t271 = shuffled<0, 4, 2, 6>(t195, t206);
        const Q t272 = shuffled<0, 1, 4, 5>(t270, t271);
        const Q t273 = shuffled<2, 3, 6, 7>(t270, t271);
        // spectrum block of 7, multiplier 2
        const Q t274 = t272 + t273;
        const P t275 = part<0>(t234);
        const P t276 = part<1>(t234);
        const P t277 = shuffled<0, 2>(t275, t276);
        const P t278 = part<1>(t76);
        const P t279 = part<0>(t235);
        const P t280 = shuffled<0, 2>(t278, t279);
        const Q t281 = joined(t277, t280);
        const Q t282 = t274 + t281;
        const P t283 = shuffled<1, 2>(t29, t194);
        const Q t284 = joined(t193, t283);
        const Q t285 = t282 + t284;
        io.out(28, 35, 42, 49, t285);
        const Q t286 = c[3] * t272;
        const Q t287 = c[4] * t273;
        const Q t288 = t286 - t287;
        const Q t289 = c[8] * t281;
        const Q t290 = t288 - t289;
        const Q t291 = shuffled<1, 5, 3, 7>(t205, t209);
        const Q t292 = shuffled<1, 5, 3, 7>(t195, t206);
        const Q t293 = shuffled<0, 1, 4, 5>(t291, t292);
        const Q t294 = c[5] * t293;
        const Q t295 = shuffled<2, 3, 6, 7>(t291, t292);
        const Q t296 = c[6] * t295;
        const Q t297 = t294 + t296;
        const P t298 = shuffled<1, 3>(t275, t276);
        const P t299 = shuffled<1, 3>(t278, t279);
        const Q t300 = joined(t298, t299);
        const Q t301 = c[7] * t300;
        const Q t302 = t297 + t301;
        const Q t303 = t290 + t284;
        const Q t304 = t303 - t302;
        io.out(1, 8, 15, 22, t304);
        const Q t305 = t303 + t302;
        io.out(55, 62, 6, 13, t305);
        const Q t306 = c[4] * t272;
        const Q t307 = t284 - t306;
        const Q t308 = c[8] * t273;
        const Q t309 = t307 - t308;
        const Q t310 = c[6] * t293;
        const Q t311 = c[7] * t295;
        const Q t312 = t310 - t311;
        const Q t313 = c[5] * t300;
        const Q t314 = t312 - t313;
        const Q t315 = c[3] * t281;
        const Q t316 = t309 + t315;
        const Q t317 = t316 - t314;
        io.out(37, 44, 51, 58, t317);
        const Q t318 = t316 + t314;
        io.out(19, 26, 33, 40, t318);
        const Q t319 = c[8] * t272;
        const Q t320 = t284 - t319;
        const Q t321 = c[3] * t273;
        const Q t322 = t320 + t321;
        const Q t323 = c[7] * t293;
        const Q t324 = c[5] * t295;
        const Q t325 = t323 - t324;
        const Q t326 = c[6] * t300;
        const Q t327 = t325 + t326;
        const Q t328 = c[4] * t281;
        const Q t329 = t322 - t328;
        const Q t330 = t329 - t327;
        io.out(10, 17, 24, 31, t330);
        const Q t331 = t329 + t327;
        io.out(46, 53, 60, 4, t331);
        const P t332 = part<0>(t210);
        const V t333 = part<0>(t332);
        const P t334 = part<1>(t210);
        const V t335 = part<0>(t334);
        // spectrum block of 7, multiplier 2
        const V t336 = t333 + t335;
        const P t337 = part<1>(t235);
        const V t338 = part<0>(t337);
        const V t339 = t336 + t338;
        const V t340 = part<1>(t194);
        const V t341 = t339 + t340;
        io.out(56, t341);
        const V t342 = c[3] * t333;
        const V t343 = c[4] * t335;
        const V t344 = t342 - t343;
        const V t345 = c[8] * t338;
        const V t346 = t344 - t345;
        const V t347 = part<1>(t332);
        const V t348 = c[5] * t347;
        const V t349 = part<1>(t334);
        const V t350 = c[6] * t349;
        const V t351 = t348 + t350;
        const V t352 = part<1>(t337);
        const V t353 = c[7] * t352;
        const V t354 = t351 + t353;
        const V t355 = t346 + t340;
        const V t356 = t355 - t354;
        io.out(29, t356);
        const V t357 = t355 + t354;
        io.out(20, t357);
        const V t358 = c[4] * t333;
        const V t359 = t340 - t358;
        const V t360 = c[8] * t335;
        const V t361 = t359 - t360;
        const V t362 = c[6] * t347;
        const V t363 = c[7] * t349;
        const V t364 = t362 - t363;
        const V t365 = c[5] * t352;
        const V t366 = t364 - t365;
        const V t367 = c[3] * t338;
        const V t368 = t361 + t367;
        const V t369 = t368 - t366;
        io.out(2, t369);
        const V t370 = t368 + t366;
        io.out(47, t370);
        const V t371 = c[8] * t333;
        const V t372 = t340 - t371;
        const V t373 = c[3] * t335;
        const V t374 = t372 + t373;
        const V t375 = c[7] * t347;
        const V t376 = c[5] * t349;
        const V t377 = t375 - t376;
        const V t378 = c[6] * t352;
        const V t379 = t377 + t378;
        const V t380 = c[4] * t338;
        const V t381 = t374 - t380;
        const V t382 = t381 - t379;
        io.out(38, t382);
        const V t383 = t381 + t379;
        io.out(11, t383);
    }
};

}  // namespace zulg
