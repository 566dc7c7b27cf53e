// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 52.
// Complex DFT of 52 points, prime-factor, order 4, 13; two lines of a stage to a register.
// 122 sums, 106 differences, 72 products of registers, which do the 1304 steps of the graph, those with
// `scale` included; 53 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<52> {
    static constexpr int steps = 1304;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.015496188988565054,  // c[2]: -P[1] of 13
        0.6007253775544544,  // c[3]: Q[1] of 13
        0.1741386011521359,  // c[4]: -Q[3] of 13
        0.5751407294740031,  // c[5]: -P[3] of 13
        0.3203288761978803,  // c[6]: -P[5] of 13
        0.5084294662830964,  // c[7]: Q[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.007705858903092426,  // c[9]: P[2] of 13
        0.6008758031820526,  // c[10]: -Q[2] of 13
        0.5794400189009605,  // c[11]: -P[4] of 13
        0.15924941320823024,  // c[12]: -Q[4] of 13
        0.5018097763375671,  // c[13]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[14]: sin 2 pi 1/3 times -Q[4] of 13
        0.3004626062886658,  // c[15]: beta of 13
        0.00667346956805653,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[17]: sin 2 pi 1/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x0_4 = io.pairs(0, 4);
        const Q x26_30 = io.pairs(26, 30);
        // complex block of 2
        const Q t0 = x0_4 + x26_30;
        const Q t1 = x0_4 - x26_30;
        const Q x13_17 = io.pairs(13, 17);
        const Q x39_43 = io.pairs(39, 43);
        // complex block of 2
        const Q t2 = x13_17 + x39_43;
        const Q t3 = x13_17 - x39_43;
        // complex block of 2
        const Q t4 = t0 + t2;
        const Q t5 = t0 - t2;
        const Q t6 = shuffled<1, 0, 3, 2>(t3);
        const Q t7 = flipped<0, 1, 0, 1>(t6);
        // complex block of 2
        const Q t8 = t1 + t7;
        const Q t9 = t1 - t7;
        const Q x8_12 = io.pairs(8, 12);
        const Q x34_38 = io.pairs(34, 38);
        // complex block of 2
        const Q t10 = x8_12 + x34_38;
        const Q t11 = x8_12 - x34_38;
        const Q x21_25 = io.pairs(21, 25);
        const Q x47_51 = io.pairs(47, 51);
        // complex block of 2
        const Q t12 = x21_25 + x47_51;
        const Q t13 = x21_25 - x47_51;
        // complex block of 2
        const Q t14 = t10 + t12;
        const Q t15 = t10 - t12;
        const Q t16 = shuffled<1, 0, 3, 2>(t13);
        const Q t17 = flipped<0, 1, 0, 1>(t16);
        // complex block of 2
        const Q t18 = t11 + t17;
        const Q t19 = t11 - t17;
        const Q x16_20 = io.pairs(16, 20);
        const Q x42_46 = io.pairs(42, 46);
        // complex block of 2
        const Q t20 = x16_20 + x42_46;
        const Q t21 = x16_20 - x42_46;
        const Q x29_33 = io.pairs(29, 33);
        const Q x3_7 = io.pairs(3, 7);
        // complex block of 2
        const Q t22 = x29_33 + x3_7;
        const Q t23 = x29_33 - x3_7;
        // complex block of 2
        const Q t24 = t20 + t22;
        const Q t25 = t20 - t22;
        const Q t26 = shuffled<1, 0, 3, 2>(t23);
        const Q t27 = flipped<0, 1, 0, 1>(t26);
        // complex block of 2
        const Q t28 = t21 + t27;
        const Q t29 = t21 - t27;
        const Q x24_28 = io.pairs(24, 28);
        const Q x50_2 = io.pairs(50, 2);
        // complex block of 2
        const Q t30 = x24_28 + x50_2;
        const Q t31 = x24_28 - x50_2;
        const Q x37_41 = io.pairs(37, 41);
        const Q x11_15 = io.pairs(11, 15);
        // complex block of 2
        const Q t32 = x37_41 + x11_15;
        const Q t33 = x37_41 - x11_15;
        // complex block of 2
        const Q t34 = t30 + t32;
        const Q t35 = t30 - t32;
        const Q t36 = shuffled<1, 0, 3, 2>(t33);
        const Q t37 = flipped<0, 1, 0, 1>(t36);
        // complex block of 2
        const Q t38 = t31 + t37;
        const Q t39 = t31 - t37;
        const Q x32_36 = io.pairs(32, 36);
        const Q x6_10 = io.pairs(6, 10);
        // complex block of 2
        const Q t40 = x32_36 + x6_10;
        const Q t41 = x32_36 - x6_10;
        const Q x45_49 = io.pairs(45, 49);
        const Q x19_23 = io.pairs(19, 23);
        // complex block of 2
        const Q t42 = x45_49 + x19_23;
        const Q t43 = x45_49 - x19_23;
        // complex block of 2
        const Q t44 = t40 + t42;
        const Q t45 = t40 - t42;
        const Q t46 = shuffled<1, 0, 3, 2>(t43);
        const Q t47 = flipped<0, 1, 0, 1>(t46);
        // complex block of 2
        const Q t48 = t41 + t47;
        const Q t49 = t41 - t47;
        const Q x40_44 = io.pairs(40, 44);
        const Q x14_18 = io.pairs(14, 18);
        // complex block of 2
        const Q t50 = x40_44 + x14_18;
        const Q t51 = x40_44 - x14_18;
        const Q x1_5 = io.pairs(1, 5);
        const Q x27_31 = io.pairs(27, 31);
        // complex block of 2
        const Q t52 = x1_5 + x27_31;
        const Q t53 = x1_5 - x27_31;
        // complex block of 2
        const Q t54 = t50 + t52;
        const Q t55 = t50 - t52;
        const Q t56 = shuffled<1, 0, 3, 2>(t53);
        const Q t57 = flipped<0, 1, 0, 1>(t56);
        // complex block of 2
        const Q t58 = t51 + t57;
        const Q t59 = t51 - t57;
        const Q x48_9 = io.pairs(48, 9);
        const Q x22_35 = io.pairs(22, 35);
        // complex block of 2
        const Q t60 = x48_9 + x22_35;
        const Q t61 = x48_9 - x22_35;
        const Q t62 = shuffled<0, 1, 4, 5>(t60, t61);
        const Q t63 = shuffled<2, 3, 6, 7>(t60, t61);
        const Q t64 = shuffled<0, 1, 3, 2>(t63);
        const Q t65 = flipped<0, 0, 0, 1>(t64);
        // complex block of 2
        const Q t66 = t62 + t65;
        const Q t67 = t62 - t65;
        const Q t68 = shuffled<2, 3, 6, 7>(t4, t8);
        // real block of 2
        const Q t69 = t68 + t66;
        const Q t70 = t68 - t66;
        const Q t71 = shuffled<0, 1, 4, 5>(t44, t48);
        const Q t72 = shuffled<2, 3, 6, 7>(t24, t28);
        // real block of 2
        const Q t73 = t71 + t72;
        const Q t74 = t71 - t72;
        // real block of 2
        const Q t75 = t69 + t73;
        const Q t76 = t69 - t73;
        const Q t77 = shuffled<2, 3, 6, 7>(t14, t18);
        const Q t78 = shuffled<0, 1, 4, 5>(t54, t58);
        // real block of 2
        const Q t79 = t77 + t78;
        const Q t80 = t77 - t78;
        const Q t81 = shuffled<2, 3, 6, 7>(t54, t58);
        const Q t82 = shuffled<0, 1, 4, 5>(t14, t18);
        // real block of 2
        const Q t83 = t81 + t82;
        const Q t84 = t81 - t82;
        // real block of 2
        const Q t85 = t79 + t83;
        const Q t86 = t79 - t83;
        const Q t87 = shuffled<2, 3, 6, 7>(t44, t48);
        const Q t88 = shuffled<0, 1, 4, 5>(t24, t28);
        // real block of 2
        const Q t89 = t87 + t88;
        const Q t90 = t87 - t88;
        const Q t91 = shuffled<2, 3, 6, 7>(t34, t38);
        const Q t92 = shuffled<0, 1, 4, 5>(t34, t38);
        // real block of 2
        const Q t93 = t91 + t92;
        const Q t94 = t91 - t92;
        // real block of 2
        const Q t95 = t89 + t93;
        const Q t96 = t89 - t93;
        // real block of 3
        const Q t97 = t85 + t95;
        const Q t98 = t85 - t95;
        const Q t99 = t97 + t75;
        const Q t100 = c[0] * t97;
        const Q t101 = t75 - t100;
        // complex block of 3
        const Q t102 = t80 + t90;
        const Q t103 = t84 + t94;
        const Q t104 = t80 - t90;
        const Q t105 = t84 - t94;
        const Q t106 = t102 + t70;
        const Q t107 = t103 + t74;
        const Q t108 = c[0] * t102;
        const Q t109 = t70 - t108;
        const Q t110 = c[0] * t103;
        const Q t111 = t74 - t110;
        const Q t112 = c[1] * t105;
        const Q t113 = t109 + t112;
        const Q t114 = c[1] * t104;
        const Q t115 = t111 - t114;
        const Q t116 = t109 - t112;
        const Q t117 = t111 + t114;
        // real block of 3
        const Q t118 = t86 + t96;
        const Q t119 = t86 - t96;
        const Q t120 = t118 + t76;
        const Q t121 = c[0] * t118;
        const Q t122 = t76 - t121;
        const Q t123 = shuffled<0, 1, 4, 5>(t4, t8);
        // complex block of 13, multiplier 4
        const Q t124 = t123 + t99;
        io.pairs(0, 13, t124);
        const Q t125 = c[8] * t99;
        const Q t126 = t123 - t125;
        const Q t127 = shuffled<1, 0, 3, 2>(t117);
        const Q t128 = Q(-c[2], c[2], -c[2], c[2]) * t127;
        const Q t129 = shuffled<1, 0, 3, 2>(t116);
        const Q t130 = Q(c[3], -c[3], c[3], -c[3]) * t129;
        const Q t131 = t128 + t130;
        const Q t132 = c[3] * t127;
        const Q t133 = c[2] * t129;
        const Q t134 = t132 + t133;
        const Q t135 = c[9] * t122;
        // real block of 3
        const Q t136 = c[1] * t119;
        // complex block of 13, multiplier 4
        const Q t137 = c[10] * t136;
        const Q t138 = t135 + t137;
        const Q t139 = shuffled<1, 0, 3, 2>(t106);
        const Q t140 = Q(-c[4], c[4], -c[4], c[4]) * t139;
        const Q t141 = shuffled<1, 0, 3, 2>(t107);
        const Q t142 = Q(c[5], -c[5], c[5], -c[5]) * t141;
        const Q t143 = t140 + t142;
        const Q t144 = c[4] * t141;
        const Q t145 = c[5] * t139;
        const Q t146 = t144 + t145;
        const Q t147 = c[11] * t101;
        // real block of 3
        const Q t148 = c[1] * t98;
        // complex block of 13, multiplier 4
        const Q t149 = c[12] * t148;
        const Q t150 = t147 + t149;
        const Q t151 = shuffled<1, 0, 3, 2>(t115);
        const Q t152 = Q(-c[6], c[6], -c[6], c[6]) * t151;
        const Q t153 = shuffled<1, 0, 3, 2>(t113);
        const Q t154 = Q(c[7], -c[7], c[7], -c[7]) * t153;
        const Q t155 = t152 + t154;
        const Q t156 = c[7] * t151;
        const Q t157 = c[6] * t153;
        const Q t158 = t156 + t157;
        // spectrum block of 3
        const Q t159 = t126 - t150;
        const Q t160 = c[0] * t150;
        const Q t161 = t160 + t126;
        const Q t162 = c[13] * t148;
        const Q t163 = c[14] * t101;
        const Q t164 = t162 - t163;
        const Q t165 = t161 - t164;
        const Q t166 = t161 + t164;
        // complex block of 3
        const Q t167 = t158 + t134;
        const Q t168 = t155 + t131;
        const Q t169 = shuffled<0, 5, 2, 7>(t158, t134);
        const Q t170 = shuffled<0, 5, 2, 7>(t134, t158);
        const Q t171 = t169 - t170;
        const Q t172 = t155 - t131;
        const Q t173 = shuffled<0, 5, 2, 7>(t167, t146);
        const Q t174 = shuffled<0, 5, 2, 7>(t146, t167);
        const Q t175 = t173 - t174;
        const Q t176 = t168 + t143;
        const Q t177 = c[0] * t167;
        const Q t178 = t177 + t146;
        const Q t179 = c[0] * t168;
        const Q t180 = t143 - t179;
        const Q t181 = flipped<1, 0, 1, 0>(t178);
        const Q t182 = c[1] * t172;
        const Q t183 = t181 + t182;
        const Q t184 = c[1] * t171;
        const Q t185 = t180 - t184;
        const Q t186 = flipped<0, 1, 0, 1>(t182);
        const Q t187 = t178 + t186;
        const Q t188 = t180 + t184;
        // complex block of 13, multiplier 4
        const Q t189 = c[15] * t120;
        // spectrum block of 3
        const Q t190 = t138 + t189;
        const Q t191 = c[0] * t138;
        const Q t192 = t189 - t191;
        const Q t193 = c[16] * t136;
        const Q t194 = c[17] * t122;
        const Q t195 = t193 - t194;
        const Q t196 = t192 + t195;
        const Q t197 = t192 - t195;
        // spectrum block of 2
        const Q t198 = t159 + t190;
        const Q t199 = t159 - t190;
        // spectrum block of 2
        const Q t200 = t198 + t176;
        io.pairs(4, 17, t200);
        const Q t201 = t198 - t176;
        io.pairs(48, 9, t201);
        // spectrum block of 2
        const Q t202 = t199 + t175;
        io.pairs(20, 33, t202);
        const Q t203 = t199 - t175;
        io.pairs(32, 45, t203);
        // spectrum block of 2
        const Q t204 = t165 + t196;
        const Q t205 = t165 - t196;
        // spectrum block of 2
        const Q t206 = t204 + t185;
        io.pairs(36, 49, t206);
        const Q t207 = t204 - t185;
        io.pairs(16, 29, t207);
        // spectrum block of 2
        const Q t208 = t205 + t183;
        io.pairs(24, 37, t208);
        const Q t209 = t205 - t183;
        io.pairs(28, 41, t209);
        // spectrum block of 2
        const Q t210 = t166 + t197;
        const Q t211 = t166 - t197;
        // spectrum block of 2
        const Q t212 = t210 + t188;
        io.pairs(12, 25, t212);
        const Q t213 = t210 - t188;
        io.pairs(40, 1, t213);
        const Q t214 = flipped<1, 0, 1, 0>(t187);
        // spectrum block of 2
        const Q t215 = t211 + t214;
        io.pairs(8, 21, t215);
        const Q t216 = t211 - t214;
        io.pairs(44, 5, t216);
        const Q t217 = shuffled<2, 3, 6, 7>(t5, t9);
        // real block of 2
        const Q t218 = t217 + t67;
        const Q t219 = t217 - t67;
        const Q t220 = shuffled<0, 1, 4, 5>(t45, t49);
        const Q t221 = shuffled<2, 3, 6, 7>(t25, t29);
        // real block of 2
        const Q t222 = t220 + t221;
        const Q t223 = t220 - t221;
        // real block of 2
        const Q t224 = t218 + t222;
        const Q t225 = t218 - t222;
        const Q t226 = shuffled<2, 3, 6, 7>(t15, t19);
        const Q t227 = shuffled<0, 1, 4, 5>(t55, t59);
        // real block of 2
        const Q t228 = t226 + t227;
        const Q t229 = t226 - t227;
        const Q t230 = shuffled<2, 3, 6, 7>(t55, t59);
        const Q t231 = shuffled<0, 1, 4, 5>(t15, t19);
        // real block of 2
        const Q t232 = t230 + t231;
        const Q t233 = t230 - t231;
        // real block of 2
        const Q t234 = t228 + t232;
        const Q t235 = t228 - t232;
        const Q t236 = shuffled<2, 3, 6, 7>(t45, t49);
        const Q t237 = shuffled<0, 1, 4, 5>(t25, t29);
        // real block of 2
        const Q t238 = t236 + t237;
        const Q t239 = t236 - t237;
        const Q t240 = shuffled<2, 3, 6, 7>(t35, t39);
        const Q t241 = shuffled<0, 1, 4, 5>(t35, t39);
        // real block of 2
        const Q t242 = t240 + t241;
        const Q t243 = t240 - t241;
        // real block of 2
        const Q t244 = t238 + t242;
        const Q t245 = t238 - t242;
        // real block of 3
        const Q t246 = t234 + t244;
        const Q t247 = t234 - t244;
        const Q t248 = t246 + t224;
        const Q t249 = c[0] * t246;
        const Q t250 = t224 - t249;
        // complex block of 3
        const Q t251 = t229 + t239;
        const Q t252 = t233 + t243;
        const Q t253 = t229 - t239;
        const Q t254 = t233 - t243;
        const Q t255 = t251 + t219;
        const Q t256 = t252 + t223;
        const Q t257 = c[0] * t251;
        const Q t258 = t219 - t257;
        const Q t259 = c[0] * t252;
        const Q t260 = t223 - t259;
        const Q t261 = c[1] * t254;
        const Q t262 = t258 + t261;
        const Q t263 = c[1] * t253;
        const Q t264 = t260 - t263;
        const Q t265 = t258 - t261;
        const Q t266 = t260 + t263;
        // real block of 3
        const Q t267 = t235 + t245;
        const Q t268 = t235 - t245;
        const Q t269 = t267 + t225;
        const Q t270 = c[0] * t267;
        const Q t271 = t225 - t270;
        const Q t272 = shuffled<0, 1, 4, 5>(t5, t9);
        // complex block of 13, multiplier 4
        const Q t273 = t272 + t248;
        io.pairs(26, 39, t273);
        const Q t274 = c[8] * t248;
        const Q t275 = t272 - t274;
        const Q t276 = shuffled<1, 0, 3, 2>(t266);
        const Q t277 = Q(-c[2], c[2], -c[2], c[2]) * t276;
        const Q t278 = shuffled<1, 0, 3, 2>(t265);
        const Q t279 = Q(c[3], -c[3], c[3], -c[3]) * t278;
        const Q t280 = t277 + t279;
        const Q t281 = c[3] * t276;
        const Q t282 = c[2] * t278;
        const Q t283 = t281 + t282;
        const Q t284 = c[9] * t271;
        // real block of 3
        const Q t285 = c[1] * t268;
        // complex block of 13, multiplier 4
        const Q t286 = c[10] * t285;
        const Q t287 = t284 + t286;
        const Q t288 = shuffled<1, 0, 3, 2>(t255);
        const Q t289 = Q(-c[4], c[4], -c[4], c[4]) * t288;
        const Q t290 = shuffled<1, 0, 3, 2>(t256);
        const Q t291 = Q(c[5], -c[5], c[5], -c[5]) * t290;
        const Q t292 = t289 + t291;
        const Q t293 = c[4] * t290;
        const Q t294 = c[5] * t288;
        const Q t295 = t293 + t294;
        const Q t296 = c[11] * t250;
        // real block of 3
        const Q t297 = c[1] * t247;
        // complex block of 13, multiplier 4
        const Q t298 = c[12] * t297;
        const Q t299 = t296 + t298;
        const Q t300 = shuffled<1, 0, 3, 2>(t264);
        const Q t301 = Q(-c[6], c[6], -c[6], c[6]) * t300;
        const Q t302 = shuffled<1, 0, 3, 2>(t262);
        const Q t303 = Q(c[7], -c[7], c[7], -c[7]) * t302;
        const Q t304 = t301 + t303;
        const Q t305 = c[7] * t300;
        const Q t306 = c[6] * t302;
        const Q t307 = t305 + t306;
        // spectrum block of 3
        const Q t308 = t275 - t299;
        const Q t309 = c[0] * t299;
        const Q t310 = t309 + t275;
        const Q t311 = c[13] * t297;
        const Q t312 = c[14] * t250;
        const Q t313 = t311 - t312;
        const Q t314 = t310 - t313;
        const Q t315 = t310 + t313;
        // complex block of 3
        const Q t316 = t307 + t283;
        const Q t317 = t304 + t280;
        const Q t318 = shuffled<0, 5, 2, 7>(t307, t283);
        const Q t319 = shuffled<0, 5, 2, 7>(t283, t307);
        const Q t320 = t318 - t319;
        const Q t321 = t304 - t280;
        const Q t322 = shuffled<0, 5, 2, 7>(t316, t295);
        const Q t323 = shuffled<0, 5, 2, 7>(t295, t316);
        const Q t324 = t322 - t323;
        const Q t325 = t317 + t292;
        const Q t326 = c[0] * t316;
        const Q t327 = t326 + t295;
        const Q t328 = c[0] * t317;
        const Q t329 = t292 - t328;
        const Q t330 = flipped<1, 0, 1, 0>(t327);
        const Q t331 = c[1] * t321;
        const Q t332 = t330 + t331;
        const Q t333 = c[1] * t320;
        const Q t334 = t329 - t333;
        const Q t335 = flipped<0, 1, 0, 1>(t331);
        const Q t336 = t327 + t335;
        const Q t337 = t329 + t333;
        // complex block of 13, multiplier 4
        const Q t338 = c[15] * t269;
        // spectrum block of 3
        const Q t339 = t287 + t338;
        const Q t340 = c[0] * t287;
        const Q t341 = t338 - t340;
        const Q t342 = c[16] * t285;
        const Q t343 = c[17] * t271;
        const Q t344 = t342 - t343;
        const Q t345 = t341 + t344;
        const Q t346 = t341 - t344;
        // spectrum block of 2
        const Q t347 = t308 + t339;
        const Q t348 = t308 - t339;
        // spectrum block of 2
        const Q t349 = t347 + t325;
        io.pairs(30, 43, t349);
        const Q t350 = t347 - t325;
        io.pairs(22, 35, t350);
        // spectrum block of 2
        const Q t351 = t348 + t324;
        io.pairs(46, 7, t351);
        const Q t352 = t348 - t324;
        io.pairs(6, 19, t352);
        // spectrum block of 2
        const Q t353 = t314 + t345;
        const Q t354 = t314 - t345;
        // spectrum block of 2
        const Q t355 = t353 + t334;
        io.pairs(10, 23, t355);
        const Q t356 = t353 - t334;
        io.pairs(42, 3, t356);
        // spectrum block of 2
        const Q t357 = t354 + t332;
        io.pairs(50, 11, t357);
        const Q t358 = t354 - t332;
        io.pairs(2, 15, t358);
        // spectrum block of 2
        const Q t359 = t315 + t346;
        const Q t360 = t315 - t346;
        // spectrum block of 2
        const Q t361 = t359 + t337;
        io.pairs(38, 51, t361);
        const Q t362 = t359 - t337;
        io.pairs(14, 27, t362);
        const Q t363 = flipped<1, 0, 1, 0>(t336);
        // spectrum block of 2
        const Q t364 = t360 + t363;
        io.pairs(34, 47, t364);
        const Q t365 = t360 - t363;
        io.pairs(18, 31, t365);
    }
};

}  // namespace zulg
