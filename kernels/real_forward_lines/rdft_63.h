// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 63.
// Forward DFT of 63 real points, prime-factor 7, 9; up to four lanes to a register.
// 85 sums, 65 differences, 90 products of registers, which do the 853 steps of the graph, those with
// `scale` included; 80 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<63> {
    static constexpr int steps = 853;  // with `scale`
    static constexpr double inverseRoot = 0.1259881576697424;  // 1/sqrt(63), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 10/7
        0.9009688679024191,  // c[5]: -cos 2 pi 10/7
        0.7818314824680298,  // c[6]: sin 2 pi 8/7
        0.6234898018587335,  // c[7]: cos 2 pi 8/7
        0.9396926207859084,  // c[8]: -cos 2 pi 5/9
        0.3420201433256687,  // c[9]: -sin 2 pi 5/9
        0.984807753012208,  // c[10]: -sin 2 pi 7/9
        0.17364817766693036,  // c[11]: cos 2 pi 7/9
        0.766044443118978,  // c[12]: cos 2 pi 1/9
        0.6427876096865394,  // c[13]: sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x1_8_15_22 = io.in(1, 8, 15, 22);
        const Q x55_62_6_13 = io.in(55, 62, 6, 13);
        // real block of 7, multiplier 2
        const Q t0 = x1_8_15_22 + x55_62_6_13;
        const Q t1 = x1_8_15_22 - x55_62_6_13;
        const Q x10_17_24_31 = io.in(10, 17, 24, 31);
        const Q x46_53_60_4 = io.in(46, 53, 60, 4);
        const Q t2 = x10_17_24_31 + x46_53_60_4;
        const Q t3 = x10_17_24_31 - x46_53_60_4;
        const Q x37_44_51_58 = io.in(37, 44, 51, 58);
        const Q x19_26_33_40 = io.in(19, 26, 33, 40);
        const Q t4 = x37_44_51_58 + x19_26_33_40;
        const Q t5 = x37_44_51_58 - x19_26_33_40;
        const Q t6 = t4 + t2;
        const Q t7 = t6 + t0;
        const Q x28_35_42_49 = io.in(28, 35, 42, 49);
        const Q t8 = c[2] * t4;
        const Q t9 = x28_35_42_49 - t8;
        const Q t10 = c[3] * t5;
        const Q t11 = c[4] * t3;
        const Q t12 = t10 + t11;
        const Q t13 = c[5] * t4;
        const Q t14 = x28_35_42_49 - t13;
        const Q t15 = c[4] * t5;
        const Q t16 = c[6] * t3;
        const Q t17 = t15 + t16;
        const Q t18 = c[7] * t4;
        const Q t19 = c[2] * t2;
        const Q t20 = t18 - t19;
        const Q t21 = c[5] * t0;
        const Q t22 = t20 - t21;
        const Q t23 = c[6] * t5;
        const Q t24 = c[3] * t3;
        const Q t25 = t23 - t24;
        const V x2 = io.in(2);
        const V x47 = io.in(47);
        // real block of 7, multiplier 2
        const V t26 = x2 + x47;
        const V t27 = x2 - x47;
        const V x38 = io.in(38);
        const V x11 = io.in(11);
        const V t28 = x38 + x11;
        const V t29 = x38 - x11;
        const V x29 = io.in(29);
        const V x20 = io.in(20);
        const V t30 = x29 + x20;
        const V t31 = x29 - x20;
        const V t32 = t26 + t28;
        const V t33 = t32 + t30;
        const V x56 = io.in(56);
        const V t34 = c[2] * t26;
        const V t35 = x56 - t34;
        const V t36 = c[3] * t27;
        const V t37 = c[4] * t29;
        const V t38 = t36 + t37;
        const V t39 = c[5] * t26;
        const V t40 = x56 - t39;
        const V t41 = c[4] * t27;
        const V t42 = c[6] * t29;
        const V t43 = t41 + t42;
        const V t44 = c[7] * t26;
        const V t45 = c[2] * t28;
        const V t46 = t44 - t45;
        const V t47 = c[5] * t30;
        const V t48 = t46 - t47;
        const V t49 = c[6] * t27;
        const V t50 = c[3] * t29;
        const V t51 = t49 - t50;
        const Q x45_52_59_3 = io.in(45, 52, 59, 3);
        const Q x18_25_32_39 = io.in(18, 25, 32, 39);
        // real block of 7, multiplier 2
        const Q t52 = x45_52_59_3 + x18_25_32_39;
        const Q t53 = x45_52_59_3 - x18_25_32_39;
        const Q x9_16_23_30 = io.in(9, 16, 23, 30);
        const Q x54_61_5_12 = io.in(54, 61, 5, 12);
        const Q t54 = x9_16_23_30 + x54_61_5_12;
        const Q t55 = x9_16_23_30 - x54_61_5_12;
        const Q x36_43_50_57 = io.in(36, 43, 50, 57);
        const Q x27_34_41_48 = io.in(27, 34, 41, 48);
        const Q t56 = x36_43_50_57 + x27_34_41_48;
        const Q t57 = x36_43_50_57 - x27_34_41_48;
        const Q t58 = t54 + t52;
        const Q t59 = t58 + t56;
        const Q t60 = c[7] * t54;
        const Q t61 = c[2] * t52;
        const Q t62 = t60 - t61;
        const Q t63 = c[5] * t56;
        const Q t64 = t62 - t63;
        const Q t65 = c[6] * t55;
        const Q t66 = c[3] * t53;
        const Q t67 = t65 - t66;
        const Q x0_7_14_21 = io.in(0, 7, 14, 21);
        const Q t68 = t59 + x0_7_14_21;
        // real block of 7, multiplier 2
        const Q t69 = t7 + x28_35_42_49;
        // real block of 7, multiplier 2
        const V t70 = t33 + x56;
        const P t71 = part<1>(t68);
        const P t72 = part<0>(t69);
        const P t73 = shuffled<1, 2>(t71, t72);
        const P t74 = part<1>(t69);
        // real block of 3
        const P t75 = t73 + t74;
        const V t76 = part<1>(t72);
        // real block of 3
        const V t77 = t76 + t70;
        const P t78 = part<0>(t68);
        // real block of 3
        const P t79 = t75 + t78;
        const V t80 = part<0>(t71);
        // real block of 3
        const V t81 = t77 + t80;
        const V t82 = part<1>(t79);
        // real block of 3
        const V t83 = t82 + t81;
        const P t84 = shuffled<1, 3>(t72, t79);
        const Q t85 = joined(t73, t84);
        const P t86 = joined(t70, t81);
        const Q t87 = joined(t74, t86);
        // real block of 3
        const Q t88 = t85 - t87;
        // real block of 7, multiplier 2
        const Q t89 = c[2] * t54;
        const Q t90 = x0_7_14_21 - t89;
        const Q t91 = c[5] * t52;
        const Q t92 = t90 - t91;
        const Q t93 = c[7] * t56;
        const Q t94 = t92 + t93;
        const Q t95 = c[3] * t55;
        const Q t96 = c[4] * t53;
        const Q t97 = t95 + t96;
        const Q t98 = c[6] * t57;
        const Q t99 = t97 + t98;
        const Q t100 = c[5] * t54;
        const Q t101 = x0_7_14_21 - t100;
        const Q t102 = c[7] * t52;
        const Q t103 = t101 + t102;
        const Q t104 = c[2] * t56;
        const Q t105 = t103 - t104;
        const Q t106 = c[4] * t55;
        const Q t107 = c[6] * t53;
        const Q t108 = t106 + t107;
        const Q t109 = c[3] * t57;
        const Q t110 = t108 - t109;
        const Q t111 = t64 + x0_7_14_21;
        const Q t112 = c[4] * t57;
        const Q t113 = t67 - t112;
        // real block of 7, multiplier 2
        const Q t114 = t22 + x28_35_42_49;
        const Q t115 = c[4] * t1;
        const Q t116 = t25 - t115;
        // real block of 7, multiplier 2
        const V t117 = t48 + x56;
        const V t118 = c[4] * t31;
        const V t119 = t51 - t118;
        const Q t120 = shuffled<1, 5, 3, 7>(t111, t113);
        const Q t121 = shuffled<0, 4, 2, 6>(t114, t116);
        const Q t122 = shuffled<2, 3, 4, 5>(t120, t121);
        const Q t123 = shuffled<1, 5, 3, 7>(t114, t116);
        const Q t124 = shuffled<2, 3, 6, 7>(t121, t123);
        // complex block of 3
        const Q t125 = t122 + t124;
        const Q t126 = t122 - t124;
        const P t127 = part<0>(t123);
        const P t128 = joined(t117, t119);
        // complex block of 3
        const P t129 = t127 + t128;
        const Q t130 = shuffled<0, 4, 2, 6>(t111, t113);
        const Q t131 = shuffled<0, 1, 4, 5>(t130, t120);
        // complex block of 3
        const Q t132 = t125 + t131;
        const P t133 = part<1>(t130);
        // complex block of 3
        const P t134 = t129 + t133;
        const P t135 = part<1>(t132);
        const V t136 = part<0>(t135);
        const V t137 = part<0>(t134);
        // complex block of 3
        const V t138 = t136 + t137;
        const V t139 = part<1>(t135);
        const V t140 = part<1>(t134);
        const V t141 = t139 + t140;
        const Q t142 = shuffled<0, 1, 6, 7>(t123, t132);
        const Q t143 = joined(t128, t134);
        // complex block of 3
        const Q t144 = t142 - t143;
        // real block of 7, multiplier 2
        const Q t145 = c[5] * t2;
        const Q t146 = t9 - t145;
        const Q t147 = c[7] * t0;
        const Q t148 = t146 + t147;
        const Q t149 = c[6] * t1;
        const Q t150 = t12 + t149;
        const Q t151 = c[7] * t2;
        const Q t152 = t14 + t151;
        const Q t153 = c[2] * t0;
        const Q t154 = t152 - t153;
        const Q t155 = c[3] * t1;
        const Q t156 = t17 - t155;
        // real block of 7, multiplier 2
        const V t157 = c[5] * t28;
        const V t158 = t35 - t157;
        const V t159 = c[7] * t30;
        const V t160 = t158 + t159;
        const V t161 = c[6] * t31;
        const V t162 = t38 + t161;
        const V t163 = c[7] * t28;
        const V t164 = t40 + t163;
        const V t165 = c[2] * t30;
        const V t166 = t164 - t165;
        const V t167 = c[3] * t31;
        const V t168 = t43 - t167;
        const Q t169 = shuffled<0, 4, 2, 6>(t148, t150);
        const Q t170 = shuffled<0, 4, 2, 6>(t154, t156);
        const Q t171 = shuffled<0, 1, 4, 5>(t169, t170);
        const Q t172 = shuffled<1, 5, 3, 7>(t148, t150);
        const Q t173 = shuffled<1, 5, 3, 7>(t154, t156);
        const Q t174 = shuffled<2, 3, 6, 7>(t172, t173);
        // complex block of 3
        const Q t175 = t171 + t174;
        const Q t176 = flipped<0, 1, 0, 0>(t171);
        const Q t177 = flipped<0, 1, 0, 0>(t174);
        const Q t178 = t176 - t177;
        const Q t179 = shuffled<0, 1, 4, 5>(t172, t173);
        const P t180 = joined(t160, t162);
        const P t181 = joined(t166, t168);
        const Q t182 = joined(t180, t181);
        // complex block of 3
        const Q t183 = t179 + t182;
        const Q t184 = flipped<0, 1, 0, 0>(t179);
        const Q t185 = flipped<0, 1, 0, 0>(t182);
        const Q t186 = t184 - t185;
        const V t187 = part<0>(t79);
        // real block of 3
        const V t188 = t83 + t187;
        io.re(0, t188);
        const P t189 = shuffled<0, 2>(t71, t79);
        const Q t190 = joined(t78, t189);
        const P t191 = joined(t77, t83);
        const Q t192 = joined(t75, t191);
        // real block of 3
        const Q t193 = c[0] * t192;
        const Q t194 = t190 - t193;
        const P t195 = part<1>(t194);
        const Q t196 = Q(c[1], c[1], c[1], -c[1]) * t88;
        const P t197 = part<1>(t196);
        const P t198 = shuffled<1, 3>(t195, t197);
        io.pair(21, t198);
        const Q t199 = shuffled<0, 4, 2, 6>(t194, t196);
        const Q t200 = shuffled<1, 5, 3, 7>(t196, t194);
        const Q t201 = shuffled<2, 3, 4, 5>(t199, t200);
        // real block of 9, multiplier 7
        const Q t202 = Q(-c[8], c[8], c[10], c[10]) * t201;
        const Q t203 = shuffled<1, 0, 3, 2>(t201);
        const Q t204 = Q(c[9], c[9], c[11], -c[11]) * t203;
        const Q t205 = t202 + t204;
        const P t206 = part<1>(t205);
        const P t207 = part<0>(t205);
        // complex block of 3
        const P t208 = t206 + t207;
        const P t209 = t206 - t207;
        const P t210 = part<0>(t199);
        const P t211 = flipped<0, 1>(t210);
        const P t212 = t208 + t211;
        io.pair(7, t212);
        const P t213 = P(-c[0], c[0]) * t208;
        const P t214 = t210 + t213;
        const P t215 = c[1] * t209;
        const P t216 = shuffled<1, 0>(t215);
        const P t217 = t214 + t216;
        io.pair(28, negated<0, 1>(t217));
        const P t218 = shuffled<0, 3>(t214, t216);
        const P t219 = shuffled<0, 3>(t216, t214);
        const P t220 = t218 - t219;
        io.pair(14, negated<0, 1>(t220));
        const Q t221 = shuffled<1, 5, 3, 7>(t94, t99);
        const Q t222 = shuffled<1, 5, 3, 7>(t105, t110);
        const Q t223 = shuffled<2, 3, 6, 7>(t221, t222);
        const Q t224 = shuffled<2, 3, 6, 7>(t169, t170);
        // complex block of 3
        const Q t225 = t223 + t224;
        const Q t226 = shuffled<0, 4, 2, 6>(t94, t99);
        const Q t227 = shuffled<0, 4, 2, 6>(t105, t110);
        const Q t228 = shuffled<0, 1, 4, 5>(t226, t227);
        const Q t229 = t225 + t228;
        const Q t230 = flipped<0, 1, 0, 0>(t228);
        const Q t231 = Q(c[0], -c[0], c[0], c[0]) * t225;
        const Q t232 = t230 - t231;
        const Q t233 = flipped<0, 1, 0, 0>(t223);
        const Q t234 = flipped<0, 1, 0, 0>(t224);
        const Q t235 = t233 - t234;
        const Q t236 = shuffled<0, 1, 4, 5>(t221, t222);
        // complex block of 3
        const Q t237 = t175 + t236;
        const Q t238 = shuffled<2, 3, 6, 7>(t226, t227);
        // complex block of 3
        const Q t239 = t183 + t238;
        // complex block of 3
        const Q t240 = t237 + t239;
        const Q t241 = flipped<0, 1, 0, 0>(t237);
        const Q t242 = flipped<0, 1, 0, 0>(t239);
        const Q t243 = t241 - t242;
        const Q t244 = flipped<0, 1, 0, 0>(t236);
        // complex block of 3
        const Q t245 = Q(c[0], -c[0], c[0], c[0]) * t175;
        const Q t246 = t244 - t245;
        const Q t247 = Q(-c[1], c[1], -c[1], c[1]) * t178;
        const Q t248 = shuffled<1, 0, 3, 2>(t247);
        const Q t249 = t246 + t248;
        const Q t250 = t246 - t248;
        // complex block of 9, multiplier 7
        const Q t251 = c[11] * t249;
        const Q t252 = shuffled<1, 0, 3, 2>(t249);
        const Q t253 = Q(-c[10], c[10], -c[10], c[10]) * t252;
        const Q t254 = t251 + t253;
        const Q t255 = shuffled<1, 0, 3, 2>(t250);
        const Q t256 = c[9] * t255;
        const Q t257 = Q(c[8], -c[8], c[8], -c[8]) * t250;
        const Q t258 = t256 + t257;
        const Q t259 = flipped<0, 1, 0, 0>(t238);
        // complex block of 3
        const Q t260 = Q(c[0], -c[0], c[0], c[0]) * t183;
        const Q t261 = t259 - t260;
        const Q t262 = Q(-c[1], c[1], -c[1], c[1]) * t186;
        const Q t263 = shuffled<1, 0, 3, 2>(t262);
        const Q t264 = t261 + t263;
        const Q t265 = t261 - t263;
        const Q t266 = shuffled<1, 0, 3, 2>(t264);
        // complex block of 9, multiplier 7
        const Q t267 = c[9] * t266;
        const Q t268 = Q(c[8], -c[8], c[8], -c[8]) * t264;
        const Q t269 = t267 + t268;
        const Q t270 = c[12] * t265;
        const Q t271 = shuffled<1, 0, 3, 2>(t265);
        const Q t272 = Q(c[13], -c[13], c[13], -c[13]) * t271;
        const Q t273 = t270 + t272;
        // complex block of 3
        const Q t274 = Q(-c[1], c[1], -c[1], c[1]) * t235;
        const Q t275 = shuffled<1, 0, 3, 2>(t274);
        const Q t276 = t232 + t275;
        const Q t277 = flipped<1, 0, 1, 0>(t269);
        // complex block of 3
        const Q t278 = t254 + t277;
        const Q t279 = t254 - t277;
        const Q t280 = t278 + t276;
        io.pairs(16, 25, t280);
        const Q t281 = c[0] * t278;
        const Q t282 = t276 - t281;
        const Q t283 = Q(-c[1], c[1], -c[1], c[1]) * t279;
        const Q t284 = shuffled<1, 0, 3, 2>(t283);
        const Q t285 = t282 + t284;
        io.pairs(26, 17, negated<0, 1, 0, 1>(t285));
        const Q t286 = t282 - t284;
        io.pairs(5, 4, negated<0, 1, 0, 0>(t286));
        // complex block of 3
        const Q t287 = t232 - t275;
        const Q t288 = flipped<1, 0, 1, 0>(t258);
        // complex block of 3
        const Q t289 = t288 + t273;
        const Q t290 = flipped<0, 1, 0, 1>(t273);
        const Q t291 = t258 + t290;
        const Q t292 = t289 + t287;
        io.pairs(23, 31, negated<0, 0, 0, 1>(t292));
        const Q t293 = c[0] * t289;
        const Q t294 = t287 - t293;
        const Q t295 = c[1] * t291;
        const Q t296 = shuffled<1, 0, 3, 2>(t295);
        const Q t297 = t294 + t296;
        io.pairs(19, 10, negated<0, 1, 0, 1>(t297));
        const Q t298 = t294 - t296;
        io.pairs(2, 11, t298);
        // complex block of 3
        const Q t299 = t240 + t229;
        io.pairs(9, 18, negated<0, 1, 0, 0>(t299));
        const Q t300 = flipped<0, 1, 0, 0>(t229);
        const Q t301 = Q(c[0], -c[0], c[0], c[0]) * t240;
        const Q t302 = t300 - t301;
        const Q t303 = Q(-c[1], c[1], -c[1], c[1]) * t243;
        const Q t304 = shuffled<1, 0, 3, 2>(t303);
        const Q t305 = t302 + t304;
        io.pairs(30, 24, negated<0, 0, 0, 1>(t305));
        const Q t306 = t302 - t304;
        io.pairs(12, 3, negated<0, 1, 0, 1>(t306));
        // complex block of 3
        const Q t307 = c[0] * t125;
        const Q t308 = t131 - t307;
        const Q t309 = Q(-c[1], c[1], -c[1], c[1]) * t126;
        const Q t310 = shuffled<1, 0, 3, 2>(t309);
        const Q t311 = t308 + t310;
        const Q t312 = t308 - t310;
        const Q t313 = shuffled<2, 3, 4, 5>(t130, t132);
        const P t314 = joined(t138, t141);
        const Q t315 = joined(t129, t314);
        // complex block of 3
        const Q t316 = c[0] * t315;
        const Q t317 = t313 - t316;
        const Q t318 = Q(-c[1], c[1], -c[1], c[1]) * t144;
        const Q t319 = shuffled<1, 0, 3, 2>(t318);
        const Q t320 = t317 + t319;
        const P t321 = part<1>(t320);
        io.pair(15, negated<0, 1>(t321));
        const Q t322 = t317 - t319;
        const P t323 = part<1>(t322);
        io.pair(6, t323);
        const Q t324 = shuffled<0, 1, 6, 7>(t320, t312);
        const Q t325 = shuffled<1, 0, 3, 2>(t324);
        // complex block of 9, multiplier 7
        const Q t326 = c[9] * t325;
        const Q t327 = Q(c[8], -c[8], c[8], -c[8]) * t324;
        const Q t328 = t326 + t327;
        const Q t329 = shuffled<2, 3, 4, 5>(t311, t322);
        const Q t330 = Q(c[11], c[11], c[12], c[12]) * t329;
        const Q t331 = shuffled<1, 0, 3, 2>(t329);
        const Q t332 = Q(-c[10], c[10], c[13], -c[13]) * t331;
        const Q t333 = t330 + t332;
        const Q t334 = flipped<1, 0, 1, 0>(t328);
        // complex block of 3
        const Q t335 = t334 + t333;
        const Q t336 = flipped<1, 1, 1, 0>(t334);
        const Q t337 = flipped<0, 0, 0, 1>(t333);
        const Q t338 = t336 + t337;
        const Q t339 = shuffled<0, 1, 4, 5>(t311, t312);
        const Q t340 = t335 + t339;
        io.pairs(29, 22, negated<0, 1, 0, 1>(t340));
        const Q t341 = c[0] * t335;
        const Q t342 = t339 - t341;
        const Q t343 = Q(-c[1], c[1], c[1], c[1]) * t338;
        const Q t344 = shuffled<1, 0, 3, 2>(t343);
        const Q t345 = t342 + t344;
        io.pairs(8, 1, negated<0, 1, 0, 1>(t345));
        const Q t346 = t342 - t344;
        io.pairs(13, 20, t346);
        const P t347 = part<0>(t132);
        // complex block of 3
        const P t348 = t314 + t347;
        io.pair(27, t348);
    }
};

}  // namespace zulg
