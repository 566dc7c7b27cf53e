// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 51.
// Complex DFT of 51 points, prime-factor, order 3, 17; two lines of a stage to a register.
// 167 sums, 140 differences, 104 products of registers, which do the 1490 steps of the graph, those with
// `scale` included; 85 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<51> {
    static constexpr int steps = 1490;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.5,  // c[3]: -cos 2 pi 1/3
        0.8660254037844386,  // c[4]: sin 2 pi 1/3
        0.4314031601143256,  // c[5]: -P[1] of 17
        0.281986371024157,  // c[6]: Q[1] of 17
        0.023972509657154296,  // c[7]: P[2] of 17
        0.51483037864984,  // c[8]: -Q[2] of 17
        0.4407489637509731,  // c[9]: -P[3] of 17
        0.26714294104925057,  // c[10]: Q[3] of 17
        0.40623178445333147,  // c[11]: P[4] of 17
        0.31717619283272513,  // c[12]: -Q[4] of 17
        0.508427430394848,  // c[13]: P[5] of 17
        0.08441888427414843,  // c[14]: Q[5] of 17
        0.33572816326715627,  // c[15]: P[6] of 17
        0.39103912897466114,  // c[16]: -Q[6] of 17
        0.4440524091413236,  // c[17]: -P[7] of 17
        0.2616150950075063,  // c[18]: Q[7] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x17_20 = io.pairs(17, 20);
        const Q x34_37 = io.pairs(34, 37);
        // complex block of 3, multiplier 2
        const Q t0 = x17_20 + x34_37;
        const Q t1 = x17_20 - x34_37;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[3] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(-c[4], c[4], -c[4], c[4]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x23_26 = io.pairs(23, 26);
        const Q x40_43 = io.pairs(40, 43);
        // complex block of 3, multiplier 2
        const Q t9 = x23_26 + x40_43;
        const Q t10 = x23_26 - x40_43;
        const Q x6_9 = io.pairs(6, 9);
        const Q t11 = t9 + x6_9;
        const Q t12 = c[3] * t9;
        const Q t13 = x6_9 - t12;
        const Q t14 = Q(-c[4], c[4], -c[4], c[4]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x29_32 = io.pairs(29, 32);
        const Q x46_49 = io.pairs(46, 49);
        // complex block of 3, multiplier 2
        const Q t18 = x29_32 + x46_49;
        const Q t19 = x29_32 - x46_49;
        const Q x12_15 = io.pairs(12, 15);
        const Q t20 = t18 + x12_15;
        const Q t21 = c[3] * t18;
        const Q t22 = x12_15 - t21;
        const Q t23 = Q(-c[4], c[4], -c[4], c[4]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        const Q x35_38 = io.pairs(35, 38);
        const Q x1_4 = io.pairs(1, 4);
        // complex block of 3, multiplier 2
        const Q t27 = x35_38 + x1_4;
        const Q t28 = x35_38 - x1_4;
        const Q x18_21 = io.pairs(18, 21);
        const Q t29 = t27 + x18_21;
        const Q t30 = c[3] * t27;
        const Q t31 = x18_21 - t30;
        const Q t32 = Q(-c[4], c[4], -c[4], c[4]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        const Q x41_44 = io.pairs(41, 44);
        const Q x7_10 = io.pairs(7, 10);
        // complex block of 3, multiplier 2
        const Q t36 = x41_44 + x7_10;
        const Q t37 = x41_44 - x7_10;
        const Q x24_27 = io.pairs(24, 27);
        const Q t38 = t36 + x24_27;
        const Q t39 = c[3] * t36;
        const Q t40 = x24_27 - t39;
        const Q t41 = Q(-c[4], c[4], -c[4], c[4]) * t37;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = t40 - t42;
        const Q x47_50 = io.pairs(47, 50);
        const Q x13_16 = io.pairs(13, 16);
        // complex block of 3, multiplier 2
        const Q t45 = x47_50 + x13_16;
        const Q t46 = x47_50 - x13_16;
        const Q x30_33 = io.pairs(30, 33);
        const Q t47 = t45 + x30_33;
        const Q t48 = c[3] * t45;
        const Q t49 = x30_33 - t48;
        const Q t50 = Q(-c[4], c[4], -c[4], c[4]) * t46;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = t49 + t51;
        const Q t53 = t49 - t51;
        const Q x2_5 = io.pairs(2, 5);
        const Q x19_22 = io.pairs(19, 22);
        // complex block of 3, multiplier 2
        const Q t54 = x2_5 + x19_22;
        const Q t55 = x2_5 - x19_22;
        const Q x36_39 = io.pairs(36, 39);
        const Q t56 = t54 + x36_39;
        const Q t57 = c[3] * t54;
        const Q t58 = x36_39 - t57;
        const Q t59 = Q(-c[4], c[4], -c[4], c[4]) * t55;
        const Q t60 = shuffled<1, 0, 3, 2>(t59);
        const Q t61 = t58 + t60;
        const Q t62 = t58 - t60;
        const Q x8_11 = io.pairs(8, 11);
        const Q x25_28 = io.pairs(25, 28);
        // complex block of 3, multiplier 2
        const Q t63 = x8_11 + x25_28;
        const Q t64 = x8_11 - x25_28;
        const Q x42_45 = io.pairs(42, 45);
        const Q t65 = t63 + x42_45;
        const Q t66 = c[3] * t63;
        const Q t67 = x42_45 - t66;
        const Q t68 = Q(-c[4], c[4], -c[4], c[4]) * t64;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = t67 + t69;
        const Q t71 = t67 - t69;
        const P x14 = io.pair(14);
        const P x31 = io.pair(31);
        // complex block of 3, multiplier 2
        const P t72 = x14 + x31;
        const P t73 = x14 - x31;
        const P x48 = io.pair(48);
        const P t74 = t72 + x48;
        const P t75 = c[3] * t72;
        const P t76 = x48 - t75;
        const P t77 = P(-c[4], c[4]) * t73;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = t76 + t78;
        const P t80 = t76 - t78;
        const Q t81 = shuffled<2, 3, 6, 7>(t2, t8);
        const Q t82 = joined(t74, t80);
        // real block of 2
        const Q t83 = t81 + t82;
        const Q t84 = t81 - t82;
        const Q t85 = shuffled<2, 3, 6, 7>(t56, t62);
        const Q t86 = shuffled<0, 1, 4, 5>(t20, t26);
        // real block of 2
        const Q t87 = t85 + t86;
        const Q t88 = t85 - t86;
        // real block of 2
        const Q t89 = t83 + t87;
        const Q t90 = t83 - t87;
        const Q t91 = shuffled<2, 3, 6, 7>(t11, t17);
        const Q t92 = shuffled<0, 1, 4, 5>(t65, t71);
        // real block of 2
        const Q t93 = t91 + t92;
        const Q t94 = t91 - t92;
        const Q t95 = shuffled<2, 3, 6, 7>(t20, t26);
        const Q t96 = shuffled<0, 1, 4, 5>(t56, t62);
        // real block of 2
        const Q t97 = t95 + t96;
        const Q t98 = t95 - t96;
        // real block of 2
        const Q t99 = t93 + t97;
        const Q t100 = t93 - t97;
        const Q t101 = shuffled<2, 3, 6, 7>(t38, t44);
        const Q t102 = shuffled<0, 1, 4, 5>(t38, t44);
        // real block of 2
        const Q t103 = t101 + t102;
        const Q t104 = t101 - t102;
        const Q t105 = shuffled<2, 3, 6, 7>(t65, t71);
        const Q t106 = shuffled<0, 1, 4, 5>(t11, t17);
        // real block of 2
        const Q t107 = t105 + t106;
        const Q t108 = t105 - t106;
        // real block of 2
        const Q t109 = t103 + t107;
        const Q t110 = t103 - t107;
        const Q t111 = shuffled<0, 1, 4, 5>(t47, t53);
        const Q t112 = shuffled<2, 3, 6, 7>(t29, t35);
        // real block of 2
        const Q t113 = t111 + t112;
        const Q t114 = t111 - t112;
        const Q t115 = shuffled<2, 3, 6, 7>(t47, t53);
        const Q t116 = shuffled<0, 1, 4, 5>(t29, t35);
        // real block of 2
        const Q t117 = t115 + t116;
        const Q t118 = t115 - t116;
        // real block of 2
        const Q t119 = t113 + t117;
        const Q t120 = t113 - t117;
        // real block of 2
        const Q t121 = t89 + t109;
        const Q t122 = t89 - t109;
        // real block of 2
        const Q t123 = t99 + t119;
        const Q t124 = t99 - t119;
        // real block of 2
        const Q t125 = t121 + t123;
        const Q t126 = t121 - t123;
        // real block of 16
        const Q t127 = c[0] * t94;
        const Q t128 = c[1] * t98;
        const Q t129 = t127 - t128;
        const Q t130 = c[0] * t98;
        const Q t131 = c[1] * t94;
        const Q t132 = t130 + t131;
        const Q t133 = t104 - t108;
        const Q t134 = t108 + t104;
        const Q t135 = c[1] * t114;
        const Q t136 = c[0] * t118;
        const Q t137 = t135 - t136;
        const Q t138 = c[1] * t118;
        const Q t139 = c[0] * t114;
        const Q t140 = t138 + t139;
        const Q t141 = c[2] * t133;
        // complex block of 2
        const Q t142 = t84 + t141;
        // real block of 16
        const Q t143 = c[2] * t134;
        // complex block of 2
        const Q t144 = t88 + t143;
        const Q t145 = t84 - t141;
        const Q t146 = t143 - t88;
        // complex block of 2
        const Q t147 = t129 + t137;
        const Q t148 = t132 + t140;
        const Q t149 = t129 - t137;
        const Q t150 = t140 - t132;
        // complex block of 2
        const Q t151 = t142 + t147;
        const Q t152 = t144 + t148;
        const Q t153 = t142 - t147;
        const Q t154 = t148 - t144;
        // complex block of 2
        const Q t155 = t145 + t150;
        const Q t156 = t146 - t149;
        const Q t157 = t145 - t150;
        const Q t158 = t146 + t149;
        // skew block of 4
        const Q t159 = t100 - t120;
        const Q t160 = t100 + t120;
        const Q t161 = c[2] * t160;
        const Q t162 = t161 - t110;
        const Q t163 = c[2] * t159;
        const Q t164 = t90 + t163;
        const Q t165 = t110 + t161;
        const Q t166 = t90 - t163;
        const Q t167 = shuffled<0, 1, 4, 5>(t2, t8);
        // complex block of 17, multiplier 3
        const Q t168 = t167 + t125;
        io.pairs(0, 17, t168);
        const Q t169 = c[19] * t125;
        const Q t170 = t167 - t169;
        const Q t171 = shuffled<1, 0, 3, 2>(t152);
        const Q t172 = Q(-c[5], c[5], -c[5], c[5]) * t171;
        const Q t173 = shuffled<1, 0, 3, 2>(t151);
        const Q t174 = Q(c[6], -c[6], c[6], -c[6]) * t173;
        const Q t175 = t172 + t174;
        const Q t176 = c[6] * t171;
        const Q t177 = c[5] * t173;
        const Q t178 = t176 + t177;
        const Q t179 = c[7] * t164;
        const Q t180 = c[8] * t165;
        const Q t181 = t179 - t180;
        const Q t182 = c[7] * t165;
        const Q t183 = c[8] * t164;
        const Q t184 = t182 + t183;
        const Q t185 = shuffled<1, 0, 3, 2>(t158);
        const Q t186 = Q(-c[9], c[9], -c[9], c[9]) * t185;
        const Q t187 = shuffled<1, 0, 3, 2>(t157);
        const Q t188 = Q(c[10], -c[10], c[10], -c[10]) * t187;
        const Q t189 = t186 + t188;
        const Q t190 = c[10] * t185;
        const Q t191 = c[9] * t187;
        const Q t192 = t190 + t191;
        const Q t193 = c[11] * t122;
        const Q t194 = c[12] * t124;
        const Q t195 = t193 - t194;
        const Q t196 = c[11] * t124;
        const Q t197 = c[12] * t122;
        const Q t198 = t196 + t197;
        const Q t199 = shuffled<1, 0, 3, 2>(t156);
        const Q t200 = Q(-c[13], c[13], -c[13], c[13]) * t199;
        const Q t201 = shuffled<1, 0, 3, 2>(t155);
        const Q t202 = Q(c[14], -c[14], c[14], -c[14]) * t201;
        const Q t203 = t200 + t202;
        const Q t204 = c[14] * t199;
        const Q t205 = c[13] * t201;
        const Q t206 = t204 + t205;
        const Q t207 = c[15] * t166;
        const Q t208 = c[16] * t162;
        const Q t209 = t207 - t208;
        const Q t210 = c[15] * t162;
        const Q t211 = c[16] * t166;
        const Q t212 = t210 + t211;
        const Q t213 = shuffled<1, 0, 3, 2>(t154);
        const Q t214 = Q(-c[17], c[17], -c[17], c[17]) * t213;
        const Q t215 = shuffled<1, 0, 3, 2>(t153);
        const Q t216 = Q(c[18], -c[18], c[18], -c[18]) * t215;
        const Q t217 = t214 + t216;
        const Q t218 = c[18] * t213;
        const Q t219 = c[17] * t215;
        const Q t220 = t218 + t219;
        const Q t221 = c[20] * t126;
        // spectrum block of 2
        const Q t222 = t170 - t221;
        const Q t223 = t170 + t221;
        // spectrum block of 2
        const Q t224 = t222 + t195;
        const Q t225 = t222 - t195;
        // spectrum block of 2
        const Q t226 = t223 + t198;
        const Q t227 = t223 - t198;
        const Q t228 = shuffled<0, 5, 2, 7>(t220, t178);
        const Q t229 = shuffled<0, 5, 2, 7>(t178, t220);
        // complex block of 2
        const Q t230 = t228 - t229;
        const Q t231 = t175 + t217;
        const Q t232 = t178 + t220;
        const Q t233 = t175 - t217;
        // complex block of 2
        const Q t234 = t206 + t192;
        const Q t235 = t203 + t189;
        const Q t236 = shuffled<0, 5, 2, 7>(t206, t192);
        const Q t237 = shuffled<0, 5, 2, 7>(t192, t206);
        const Q t238 = t236 - t237;
        const Q t239 = t203 - t189;
        const Q t240 = flipped<0, 1, 0, 1>(t234);
        // complex block of 2
        const Q t241 = t230 + t240;
        const Q t242 = t231 + t235;
        const Q t243 = t230 - t240;
        const Q t244 = t231 - t235;
        const Q t245 = flipped<1, 0, 1, 0>(t232);
        // complex block of 2
        const Q t246 = t245 + t239;
        const Q t247 = t233 - t238;
        const Q t248 = flipped<0, 1, 0, 1>(t239);
        const Q t249 = t232 + t248;
        const Q t250 = t233 + t238;
        // spectrum block of 16
        const Q t251 = c[0] * t247;
        const Q t252 = c[1] * t246;
        const Q t253 = t251 - t252;
        const Q t254 = c[0] * t246;
        const Q t255 = c[1] * t247;
        const Q t256 = t254 + t255;
        const Q t257 = t244 + t243;
        const Q t258 = t243 - t244;
        const Q t259 = c[1] * t250;
        const Q t260 = Q(c[0], -c[0], c[0], -c[0]) * t249;
        const Q t261 = t259 + t260;
        const Q t262 = Q(-c[1], c[1], -c[1], c[1]) * t249;
        const Q t263 = c[0] * t250;
        const Q t264 = t262 + t263;
        // mirrored skew block of 4
        const Q t265 = t181 - t209;
        const Q t266 = t184 + t212;
        const Q t267 = t181 + t209;
        const Q t268 = c[2] * t265;
        const Q t269 = c[2] * t266;
        const Q t270 = t268 + t269;
        const Q t271 = t212 - t184;
        const Q t272 = t268 - t269;
        // spectrum block of 2
        const Q t273 = t224 + t267;
        const Q t274 = t224 - t267;
        // spectrum block of 2
        const Q t275 = t273 + t242;
        io.pairs(3, 20, t275);
        const Q t276 = t273 - t242;
        io.pairs(48, 14, t276);
        // spectrum block of 2
        const Q t277 = t274 - t241;
        io.pairs(12, 29, t277);
        const Q t278 = t274 + t241;
        io.pairs(39, 5, t278);
        // spectrum block of 2
        const Q t279 = t226 + t270;
        const Q t280 = t226 - t270;
        // spectrum block of 2
        const Q t281 = t279 + t253;
        io.pairs(18, 35, t281);
        const Q t282 = t279 - t253;
        io.pairs(33, 50, t282);
        // spectrum block of 2
        const Q t283 = t280 - t256;
        io.pairs(21, 38, t283);
        const Q t284 = t280 + t256;
        io.pairs(30, 47, t284);
        // spectrum block of 2
        const Q t285 = t225 - t271;
        const Q t286 = t225 + t271;
        // spectrum block of 16
        const Q t287 = c[2] * t258;
        // spectrum block of 2
        const Q t288 = t285 - t287;
        io.pairs(6, 23, t288);
        const Q t289 = t285 + t287;
        io.pairs(45, 11, t289);
        // spectrum block of 16
        const Q t290 = c[2] * t257;
        // spectrum block of 2
        const Q t291 = t286 - t290;
        io.pairs(24, 41, t291);
        const Q t292 = t286 + t290;
        io.pairs(27, 44, t292);
        // spectrum block of 2
        const Q t293 = t227 - t272;
        const Q t294 = t227 + t272;
        // spectrum block of 2
        const Q t295 = t293 + t261;
        io.pairs(36, 2, t295);
        const Q t296 = t293 - t261;
        io.pairs(15, 32, t296);
        // spectrum block of 2
        const Q t297 = t294 - t264;
        io.pairs(42, 8, t297);
        const Q t298 = t294 + t264;
        io.pairs(9, 26, t298);
        const P t299 = part<1>(t7);
        // real block of 2
        const P t300 = t299 + t79;
        const P t301 = t299 - t79;
        const P t302 = part<1>(t61);
        const P t303 = part<0>(t25);
        // real block of 2
        const P t304 = t302 + t303;
        const P t305 = t302 - t303;
        // real block of 2
        const P t306 = t300 + t304;
        const P t307 = t300 - t304;
        const P t308 = part<1>(t16);
        const P t309 = part<0>(t70);
        // real block of 2
        const P t310 = t308 + t309;
        const P t311 = t308 - t309;
        const P t312 = part<1>(t25);
        const P t313 = part<0>(t61);
        // real block of 2
        const P t314 = t312 + t313;
        const P t315 = t312 - t313;
        // real block of 2
        const P t316 = t310 + t314;
        const P t317 = t310 - t314;
        const P t318 = part<1>(t43);
        const P t319 = part<0>(t43);
        // real block of 2
        const P t320 = t318 + t319;
        const P t321 = t318 - t319;
        const P t322 = part<1>(t70);
        const P t323 = part<0>(t16);
        // real block of 2
        const P t324 = t322 + t323;
        const P t325 = t322 - t323;
        // real block of 2
        const P t326 = t320 + t324;
        const P t327 = t320 - t324;
        const P t328 = part<0>(t52);
        const P t329 = part<1>(t34);
        // real block of 2
        const P t330 = t328 + t329;
        const P t331 = t328 - t329;
        const P t332 = part<1>(t52);
        const P t333 = part<0>(t34);
        // real block of 2
        const P t334 = t332 + t333;
        const P t335 = t332 - t333;
        // real block of 2
        const P t336 = t330 + t334;
        const P t337 = t330 - t334;
        // real block of 2
        const P t338 = t306 + t326;
        const P t339 = t306 - t326;
        // real block of 2
        const P t340 = t316 + t336;
        const P t341 = t316 - t336;
        // real block of 2
        const P t342 = t338 + t340;
        const P t343 = t338 - t340;
        const Q t344 = joined(t311, t315);
        // real block of 16
        const Q t345 = c[0] * t344;
        const Q t346 = shuffled<2, 3, 0, 1>(t344);
        const Q t347 = Q(-c[1], -c[1], c[1], c[1]) * t346;
        const Q t348 = t345 + t347;
        const P t349 = t321 - t325;
        const P t350 = t325 + t321;
        const Q t351 = joined(t331, t335);
        const Q t352 = c[1] * t351;
        const Q t353 = shuffled<2, 3, 0, 1>(t351);
        const Q t354 = Q(-c[0], -c[0], c[0], c[0]) * t353;
        const Q t355 = t352 + t354;
        const P t356 = c[2] * t349;
        // complex block of 2
        const P t357 = t301 + t356;
        // real block of 16
        const P t358 = c[2] * t350;
        // complex block of 2
        const P t359 = t305 + t358;
        const P t360 = t301 - t356;
        const P t361 = t358 - t305;
        const P t362 = part<0>(t348);
        const P t363 = part<0>(t355);
        // complex block of 2
        const P t364 = t362 + t363;
        const P t365 = part<1>(t348);
        const P t366 = part<1>(t355);
        const P t367 = t365 + t366;
        const P t368 = t362 - t363;
        const P t369 = t366 - t365;
        // complex block of 2
        const P t370 = t357 + t364;
        const P t371 = t359 + t367;
        const P t372 = t357 - t364;
        const P t373 = t367 - t359;
        // complex block of 2
        const P t374 = t360 + t369;
        const P t375 = t361 - t368;
        const P t376 = t360 - t369;
        const P t377 = t361 + t368;
        // skew block of 4
        const P t378 = t317 - t337;
        const P t379 = t317 + t337;
        const P t380 = c[2] * t379;
        const P t381 = t380 - t327;
        const P t382 = c[2] * t378;
        const P t383 = t307 + t382;
        const P t384 = t327 + t380;
        const P t385 = t307 - t382;
        const P t386 = part<0>(t7);
        // complex block of 17, multiplier 3
        const P t387 = t386 + t342;
        io.pair(34, t387);
        const P t388 = c[19] * t342;
        const P t389 = t386 - t388;
        const Q t390 = joined(t370, t371);
        const Q t391 = shuffled<1, 0, 3, 2>(t390);
        const Q t392 = Q(c[6], -c[6], c[6], c[6]) * t391;
        const Q t393 = shuffled<2, 3, 0, 1>(t391);
        const Q t394 = Q(-c[5], c[5], c[5], c[5]) * t393;
        const Q t395 = t392 + t394;
        const Q t396 = joined(t383, t384);
        const Q t397 = c[7] * t396;
        const Q t398 = shuffled<2, 3, 0, 1>(t396);
        const Q t399 = Q(-c[8], -c[8], c[8], c[8]) * t398;
        const Q t400 = t397 + t399;
        const Q t401 = joined(t376, t377);
        const Q t402 = shuffled<1, 0, 3, 2>(t401);
        const Q t403 = Q(c[10], -c[10], c[10], c[10]) * t402;
        const Q t404 = shuffled<2, 3, 0, 1>(t402);
        const Q t405 = Q(-c[9], c[9], c[9], c[9]) * t404;
        const Q t406 = t403 + t405;
        const Q t407 = joined(t339, t341);
        const Q t408 = c[11] * t407;
        const Q t409 = shuffled<2, 3, 0, 1>(t407);
        const Q t410 = Q(-c[12], -c[12], c[12], c[12]) * t409;
        const Q t411 = t408 + t410;
        const Q t412 = joined(t374, t375);
        const Q t413 = shuffled<1, 0, 3, 2>(t412);
        const Q t414 = Q(c[14], -c[14], c[14], c[14]) * t413;
        const Q t415 = shuffled<2, 3, 0, 1>(t413);
        const Q t416 = Q(-c[13], c[13], c[13], c[13]) * t415;
        const Q t417 = t414 + t416;
        const Q t418 = joined(t385, t381);
        const Q t419 = c[15] * t418;
        const Q t420 = shuffled<2, 3, 0, 1>(t418);
        const Q t421 = Q(-c[16], -c[16], c[16], c[16]) * t420;
        const Q t422 = t419 + t421;
        const Q t423 = joined(t372, t373);
        const Q t424 = shuffled<1, 0, 3, 2>(t423);
        const Q t425 = Q(c[18], -c[18], c[18], c[18]) * t424;
        const Q t426 = shuffled<2, 3, 0, 1>(t424);
        const Q t427 = Q(-c[17], c[17], c[17], c[17]) * t426;
        const Q t428 = t425 + t427;
        const P t429 = c[20] * t343;
        // spectrum block of 2
        const P t430 = t389 - t429;
        const P t431 = t389 + t429;
        const P t432 = part<0>(t411);
        // spectrum block of 2
        const P t433 = t430 + t432;
        const P t434 = t430 - t432;
        const P t435 = part<1>(t411);
        // spectrum block of 2
        const P t436 = t431 + t435;
        const P t437 = t431 - t435;
        const P t438 = part<1>(t395);
        const P t439 = flipped<1, 0>(t438);
        const P t440 = part<1>(t428);
        const P t441 = flipped<0, 1>(t440);
        // complex block of 2
        const P t442 = t439 + t441;
        const P t443 = part<0>(t395);
        const P t444 = part<0>(t428);
        const P t445 = t443 + t444;
        const P t446 = t438 + t440;
        const P t447 = t443 - t444;
        const P t448 = part<1>(t417);
        const P t449 = part<1>(t406);
        // complex block of 2
        const P t450 = t448 + t449;
        const P t451 = part<0>(t417);
        const P t452 = part<0>(t406);
        const P t453 = t451 + t452;
        const P t454 = shuffled<0, 3>(t448, t449);
        const P t455 = shuffled<0, 3>(t449, t448);
        const P t456 = t454 - t455;
        const P t457 = t451 - t452;
        const P t458 = flipped<0, 1>(t450);
        // complex block of 2
        const P t459 = t442 + t458;
        const P t460 = t445 + t453;
        const P t461 = t442 - t458;
        const P t462 = t445 - t453;
        const P t463 = flipped<1, 0>(t446);
        // complex block of 2
        const P t464 = t463 + t457;
        const P t465 = t447 - t456;
        const P t466 = flipped<0, 1>(t457);
        const P t467 = t446 + t466;
        const P t468 = t447 + t456;
        const Q t469 = joined(t465, t464);
        // spectrum block of 16
        const Q t470 = c[0] * t469;
        const Q t471 = shuffled<2, 3, 0, 1>(t469);
        const Q t472 = Q(-c[1], -c[1], c[1], c[1]) * t471;
        const Q t473 = t470 + t472;
        const P t474 = t462 + t461;
        const P t475 = t461 - t462;
        const Q t476 = joined(t467, t467);
        const Q t477 = Q(c[0], -c[0], -c[1], c[1]) * t476;
        const Q t478 = joined(t468, t468);
        const Q t479 = Q(c[1], c[1], c[0], c[0]) * t478;
        const Q t480 = t477 + t479;
        const P t481 = part<0>(t400);
        const P t482 = part<0>(t422);
        // mirrored skew block of 4
        const P t483 = t481 - t482;
        const P t484 = part<1>(t400);
        const P t485 = part<1>(t422);
        const P t486 = t484 + t485;
        const P t487 = t481 + t482;
        const P t488 = c[2] * t483;
        const P t489 = c[2] * t486;
        const P t490 = t488 + t489;
        const P t491 = t485 - t484;
        const P t492 = t488 - t489;
        // spectrum block of 2
        const P t493 = t433 + t487;
        const P t494 = t433 - t487;
        // spectrum block of 2
        const P t495 = t493 + t460;
        io.pair(37, t495);
        const P t496 = t493 - t460;
        io.pair(31, t496);
        // spectrum block of 2
        const P t497 = t494 - t459;
        io.pair(46, t497);
        const P t498 = t494 + t459;
        io.pair(22, t498);
        // spectrum block of 2
        const P t499 = t436 + t490;
        const P t500 = t436 - t490;
        const P t501 = part<0>(t473);
        // spectrum block of 2
        const P t502 = t499 + t501;
        io.pair(1, t502);
        const P t503 = t499 - t501;
        io.pair(16, t503);
        const P t504 = part<1>(t473);
        // spectrum block of 2
        const P t505 = t500 - t504;
        io.pair(4, t505);
        const P t506 = t500 + t504;
        io.pair(13, t506);
        // spectrum block of 2
        const P t507 = t434 - t491;
        const P t508 = t434 + t491;
        // spectrum block of 16
        const P t509 = c[2] * t475;
        // spectrum block of 2
        const P t510 = t507 - t509;
        io.pair(40, t510);
        const P t511 = t507 + t509;
        io.pair(28, t511);
        // spectrum block of 16
        const P t512 = c[2] * t474;
        // spectrum block of 2
        const P t513 = t508 - t512;
        io.pair(7, t513);
        const P t514 = t508 + t512;
        io.pair(10, t514);
        // spectrum block of 2
        const P t515 = t437 - t492;
        const P t516 = t437 + t492;
        const P t517 = part<0>(t480);
        // spectrum block of 2
        const P t518 = t515 + t517;
        io.pair(19, t518);
        const P t519 = t515 - t517;
        io.pair(49, t519);
        const P t520 = part<1>(t480);
        // spectrum block of 2
        const P t521 = t516 - t520;
        io.pair(25, t521);
        const P t522 = t516 + t520;
        io.pair(43, t522);
    }
};

}  // namespace zulg
