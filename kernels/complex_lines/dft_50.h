// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 50.
// Complex DFT of 50 points, prime-factor, order 25, 2; two lines of a stage to a register.
// 122 sums, 82 differences, 112 products of registers, which do the 1352 steps of the graph, those with
// `scale` included; 112 shuffles, 26 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<50> {
    static constexpr int steps = 1352;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.42577929156507266,  // c[4]: -cos 2 pi 8/25
        0.9048270524660196,  // c[5]: sin 2 pi 8/25
        0.06279051952931337,  // c[6]: cos 2 pi 6/25
        0.9980267284282716,  // c[7]: sin 2 pi 6/25
        0.9685831611286311,  // c[8]: cos 2 pi 24/25
        0.2486898871648548,  // c[9]: -sin 2 pi 24/25
        0.9921147013144779,  // c[10]: -cos 2 pi 12/25
        0.12533323356430426,  // c[11]: sin 2 pi 12/25
        0.9822872507286887,  // c[12]: -sin 2 pi 18/25
        0.18738131458572463,  // c[13]: -cos 2 pi 18/25
        0.5358267949789967,  // c[14]: cos 2 pi 4/25
        0.8443279255020151,  // c[15]: sin 2 pi 4/25
        0.7705132427757893,  // c[16]: -sin 2 pi 16/25
        0.6374239897486897,  // c[17]: -cos 2 pi 16/25
        0.8763066800438636,  // c[18]: cos 2 pi 2/25
        0.48175367410171527,  // c[19]: sin 2 pi 2/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x30_5 = io.pairs(30, 5);
        const Q x20_45 = io.pairs(20, 45);
        // complex block of 5, multiplier 2
        const Q t0 = x30_5 + x20_45;
        const Q t1 = x30_5 - x20_45;
        const Q x10_35 = io.pairs(10, 35);
        const Q x40_15 = io.pairs(40, 15);
        const Q t2 = x10_35 + x40_15;
        const Q t3 = x10_35 - x40_15;
        const Q t4 = t2 + t0;
        const Q x0_25 = io.pairs(0, 25);
        const Q t5 = t4 + x0_25;
        const Q t6 = c[0] * t2;
        const Q t7 = c[1] * t0;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x0_25;
        const Q t10 = c[2] * t3;
        const Q t11 = c[3] * t1;
        const Q t12 = t10 - t11;
        const Q t13 = c[1] * t2;
        const Q t14 = x0_25 - t13;
        const Q t15 = c[0] * t0;
        const Q t16 = t14 + t15;
        const Q t17 = c[3] * t3;
        const Q t18 = c[2] * t1;
        const Q t19 = t17 + t18;
        const Q x36_11 = io.pairs(36, 11);
        const Q x26_1 = io.pairs(26, 1);
        // complex block of 5, multiplier 2
        const Q t20 = x36_11 + x26_1;
        const Q t21 = x36_11 - x26_1;
        const Q x16_41 = io.pairs(16, 41);
        const Q x46_21 = io.pairs(46, 21);
        const Q t22 = x16_41 + x46_21;
        const Q t23 = x16_41 - x46_21;
        const Q t24 = t22 + t20;
        const Q t25 = c[0] * t22;
        const Q t26 = c[1] * t20;
        const Q t27 = t25 - t26;
        const Q x6_31 = io.pairs(6, 31);
        const Q t28 = c[1] * t22;
        const Q t29 = x6_31 - t28;
        const Q x34_9 = io.pairs(34, 9);
        const Q x24_49 = io.pairs(24, 49);
        // complex block of 5, multiplier 2
        const Q t30 = x34_9 + x24_49;
        const Q t31 = x34_9 - x24_49;
        const Q x14_39 = io.pairs(14, 39);
        const Q x44_19 = io.pairs(44, 19);
        const Q t32 = x14_39 + x44_19;
        const Q t33 = x14_39 - x44_19;
        const Q t34 = t32 + t30;
        const Q t35 = c[0] * t32;
        const Q t36 = c[1] * t30;
        const Q t37 = t35 - t36;
        const Q x4_29 = io.pairs(4, 29);
        const Q t38 = c[1] * t32;
        const Q t39 = x4_29 - t38;
        const Q t40 = t34 + x4_29;
        // complex block of 5, multiplier 2
        const Q t41 = t24 + x6_31;
        // complex block of 5, multiplier 2
        const Q t42 = t41 + t40;
        const Q t43 = t41 - t40;
        // complex block of 5, multiplier 2
        const Q t44 = t37 + x4_29;
        const Q t45 = c[2] * t33;
        const Q t46 = c[3] * t31;
        const Q t47 = t45 - t46;
        const Q t48 = shuffled<1, 0, 3, 2>(t47);
        const Q t49 = flipped<0, 1, 0, 1>(t48);
        const Q t50 = t44 + t49;
        const Q t51 = t44 - t49;
        const Q t52 = c[0] * t30;
        const Q t53 = t39 + t52;
        const Q t54 = c[3] * t33;
        const Q t55 = c[2] * t31;
        const Q t56 = t54 + t55;
        const Q t57 = shuffled<1, 0, 3, 2>(t56);
        const Q t58 = flipped<0, 1, 0, 1>(t57);
        const Q t59 = t53 + t58;
        const Q t60 = t53 - t58;
        // complex block of 5, multiplier 2
        const Q t61 = t27 + x6_31;
        const Q t62 = c[2] * t23;
        const Q t63 = c[3] * t21;
        const Q t64 = t62 - t63;
        const Q t65 = shuffled<1, 0, 3, 2>(t64);
        const Q t66 = flipped<0, 1, 0, 1>(t65);
        const Q t67 = t61 + t66;
        const Q t68 = t61 - t66;
        const Q t69 = c[0] * t20;
        const Q t70 = t29 + t69;
        const Q t71 = c[3] * t23;
        const Q t72 = c[2] * t21;
        const Q t73 = t71 + t72;
        const Q t74 = shuffled<1, 0, 3, 2>(t73);
        const Q t75 = flipped<0, 1, 0, 1>(t74);
        const Q t76 = t70 + t75;
        const Q t77 = t70 - t75;
        const Q x32_7 = io.pairs(32, 7);
        const Q x22_47 = io.pairs(22, 47);
        // complex block of 5, multiplier 2
        const Q t78 = x32_7 + x22_47;
        const Q t79 = x32_7 - x22_47;
        const Q x12_37 = io.pairs(12, 37);
        const Q x42_17 = io.pairs(42, 17);
        const Q t80 = x12_37 + x42_17;
        const Q t81 = x12_37 - x42_17;
        const Q t82 = t80 + t78;
        const Q t83 = c[0] * t80;
        const Q t84 = c[1] * t78;
        const Q t85 = t83 - t84;
        const Q x2_27 = io.pairs(2, 27);
        const Q t86 = c[1] * t80;
        const Q t87 = x2_27 - t86;
        const Q x38_13 = io.pairs(38, 13);
        const Q x28_3 = io.pairs(28, 3);
        // complex block of 5, multiplier 2
        const Q t88 = x38_13 + x28_3;
        const Q t89 = x38_13 - x28_3;
        const Q x18_43 = io.pairs(18, 43);
        const Q x48_23 = io.pairs(48, 23);
        const Q t90 = x18_43 + x48_23;
        const Q t91 = x18_43 - x48_23;
        const Q t92 = t90 + t88;
        const Q t93 = c[0] * t90;
        const Q t94 = c[1] * t88;
        const Q t95 = t93 - t94;
        const Q x8_33 = io.pairs(8, 33);
        const Q t96 = c[1] * t90;
        const Q t97 = x8_33 - t96;
        // complex block of 5, multiplier 2
        const Q t98 = t82 + x2_27;
        // complex block of 5, multiplier 2
        const Q t99 = t92 + x8_33;
        // complex block of 5, multiplier 2
        const Q t100 = t98 + t99;
        const Q t101 = t98 - t99;
        // complex block of 5, multiplier 2
        const Q t102 = t85 + x2_27;
        const Q t103 = c[2] * t81;
        const Q t104 = c[3] * t79;
        const Q t105 = t103 - t104;
        const Q t106 = shuffled<1, 0, 3, 2>(t105);
        const Q t107 = flipped<0, 1, 0, 1>(t106);
        const Q t108 = t102 + t107;
        const Q t109 = t102 - t107;
        const Q t110 = c[0] * t78;
        const Q t111 = t87 + t110;
        const Q t112 = c[3] * t81;
        const Q t113 = c[2] * t79;
        const Q t114 = t112 + t113;
        const Q t115 = shuffled<1, 0, 3, 2>(t114);
        const Q t116 = flipped<0, 1, 0, 1>(t115);
        const Q t117 = t111 + t116;
        const Q t118 = t111 - t116;
        // complex block of 5, multiplier 2
        const Q t119 = t95 + x8_33;
        const Q t120 = c[2] * t91;
        const Q t121 = c[3] * t89;
        const Q t122 = t120 - t121;
        const Q t123 = shuffled<1, 0, 3, 2>(t122);
        const Q t124 = flipped<0, 1, 0, 1>(t123);
        const Q t125 = t119 + t124;
        const Q t126 = t119 - t124;
        const Q t127 = c[0] * t88;
        const Q t128 = t97 + t127;
        const Q t129 = c[3] * t91;
        const Q t130 = c[2] * t89;
        const Q t131 = t129 + t130;
        const Q t132 = shuffled<1, 0, 3, 2>(t131);
        const Q t133 = flipped<0, 1, 0, 1>(t132);
        const Q t134 = t128 + t133;
        const Q t135 = t128 - t133;
        const Q t136 = shuffled<1, 0, 3, 2>(t12);
        const Q t137 = flipped<0, 1, 0, 1>(t136);
        // complex block of 5, multiplier 2
        const Q t138 = t9 + t137;
        // complex block of 25, multiplier 2
        const Q t139 = c[6] * t108;
        const Q t140 = shuffled<1, 0, 3, 2>(t108);
        const Q t141 = Q(c[7], -c[7], c[7], -c[7]) * t140;
        const Q t142 = t139 + t141;
        const Q t143 = c[8] * t125;
        const Q t144 = shuffled<1, 0, 3, 2>(t125);
        const Q t145 = Q(-c[9], c[9], -c[9], c[9]) * t144;
        const Q t146 = t143 + t145;
        // complex block of 5, multiplier 2
        const Q t147 = t142 + t146;
        const Q t148 = t142 - t146;
        // complex block of 25, multiplier 2
        const Q t149 = Q(-c[10], c[10], -c[10], c[10]) * t50;
        const Q t150 = shuffled<1, 0, 3, 2>(t50);
        const Q t151 = c[11] * t150;
        const Q t152 = t149 + t151;
        const Q t153 = shuffled<1, 0, 3, 2>(t67);
        const Q t154 = c[12] * t153;
        const Q t155 = Q(c[13], -c[13], c[13], -c[13]) * t67;
        const Q t156 = t154 + t155;
        const Q t157 = shuffled<0, 5, 2, 7>(t152, t156);
        const Q t158 = shuffled<0, 5, 2, 7>(t156, t152);
        // complex block of 5, multiplier 2
        const Q t159 = t157 - t158;
        const Q t160 = t156 + t152;
        const Q t161 = t147 + t159;
        const Q t162 = c[0] * t147;
        const Q t163 = c[1] * t159;
        const Q t164 = t162 - t163;
        const Q t165 = c[1] * t147;
        const Q t166 = t138 - t165;
        // complex block of 5, multiplier 2
        const Q t167 = t9 - t137;
        // complex block of 25, multiplier 2
        const Q t168 = c[14] * t109;
        const Q t169 = shuffled<1, 0, 3, 2>(t109);
        const Q t170 = Q(c[15], -c[15], c[15], -c[15]) * t169;
        const Q t171 = t168 + t170;
        const Q t172 = shuffled<1, 0, 3, 2>(t126);
        const Q t173 = c[16] * t172;
        const Q t174 = Q(c[17], -c[17], c[17], -c[17]) * t126;
        const Q t175 = t173 + t174;
        const Q t176 = flipped<1, 0, 1, 0>(t175);
        // complex block of 5, multiplier 2
        const Q t177 = t171 + t176;
        const Q t178 = t171 - t176;
        // complex block of 25, multiplier 2
        const Q t179 = Q(-c[4], c[4], -c[4], c[4]) * t51;
        const Q t180 = shuffled<1, 0, 3, 2>(t51);
        const Q t181 = c[5] * t180;
        const Q t182 = t179 + t181;
        const Q t183 = Q(-c[10], c[10], -c[10], c[10]) * t68;
        const Q t184 = shuffled<1, 0, 3, 2>(t68);
        const Q t185 = c[11] * t184;
        const Q t186 = t183 + t185;
        // complex block of 5, multiplier 2
        const Q t187 = t186 + t182;
        const Q t188 = shuffled<0, 5, 2, 7>(t186, t182);
        const Q t189 = shuffled<0, 5, 2, 7>(t182, t186);
        const Q t190 = t188 - t189;
        const Q t191 = flipped<0, 1, 0, 1>(t187);
        const Q t192 = t177 + t191;
        const Q t193 = c[0] * t177;
        const Q t194 = Q(-c[1], c[1], -c[1], c[1]) * t187;
        const Q t195 = t193 + t194;
        const Q t196 = c[1] * t177;
        const Q t197 = t167 - t196;
        const Q t198 = shuffled<1, 0, 3, 2>(t19);
        const Q t199 = flipped<0, 1, 0, 1>(t198);
        // complex block of 5, multiplier 2
        const Q t200 = t16 + t199;
        // complex block of 25, multiplier 2
        const Q t201 = c[18] * t117;
        const Q t202 = shuffled<1, 0, 3, 2>(t117);
        const Q t203 = Q(c[19], -c[19], c[19], -c[19]) * t202;
        const Q t204 = t201 + t203;
        const Q t205 = Q(-c[4], c[4], -c[4], c[4]) * t134;
        const Q t206 = shuffled<1, 0, 3, 2>(t134);
        const Q t207 = c[5] * t206;
        const Q t208 = t205 + t207;
        const Q t209 = flipped<0, 1, 0, 1>(t208);
        // complex block of 5, multiplier 2
        const Q t210 = t204 + t209;
        const Q t211 = t204 - t209;
        // complex block of 25, multiplier 2
        const Q t212 = c[14] * t59;
        const Q t213 = shuffled<1, 0, 3, 2>(t59);
        const Q t214 = Q(c[15], -c[15], c[15], -c[15]) * t213;
        const Q t215 = t212 + t214;
        const Q t216 = c[6] * t76;
        const Q t217 = shuffled<1, 0, 3, 2>(t76);
        const Q t218 = Q(c[7], -c[7], c[7], -c[7]) * t217;
        const Q t219 = t216 + t218;
        // complex block of 5, multiplier 2
        const Q t220 = t219 + t215;
        const Q t221 = t219 - t215;
        const Q t222 = t210 + t220;
        const Q t223 = c[0] * t210;
        const Q t224 = c[1] * t220;
        const Q t225 = t223 - t224;
        const Q t226 = c[1] * t210;
        const Q t227 = t200 - t226;
        // complex block of 5, multiplier 2
        const Q t228 = t16 - t199;
        // complex block of 25, multiplier 2
        const Q t229 = Q(-c[4], c[4], -c[4], c[4]) * t118;
        const Q t230 = shuffled<1, 0, 3, 2>(t118);
        const Q t231 = c[5] * t230;
        const Q t232 = t229 + t231;
        const Q t233 = Q(-c[13], c[13], -c[13], c[13]) * t135;
        const Q t234 = shuffled<1, 0, 3, 2>(t135);
        const Q t235 = c[12] * t234;
        const Q t236 = t233 + t235;
        // complex block of 5, multiplier 2
        const Q t237 = t232 + t236;
        const Q t238 = shuffled<0, 5, 2, 7>(t232, t236);
        const Q t239 = shuffled<0, 5, 2, 7>(t236, t232);
        const Q t240 = t238 - t239;
        const Q t241 = shuffled<1, 0, 3, 2>(t60);
        // complex block of 25, multiplier 2
        const Q t242 = c[16] * t241;
        const Q t243 = Q(c[17], -c[17], c[17], -c[17]) * t60;
        const Q t244 = t242 + t243;
        const Q t245 = c[8] * t77;
        const Q t246 = shuffled<1, 0, 3, 2>(t77);
        const Q t247 = Q(-c[9], c[9], -c[9], c[9]) * t246;
        const Q t248 = t245 + t247;
        const Q t249 = flipped<1, 0, 1, 0>(t244);
        // complex block of 5, multiplier 2
        const Q t250 = t248 + t249;
        const Q t251 = t248 - t249;
        const Q t252 = flipped<0, 1, 0, 1>(t237);
        const Q t253 = t250 + t252;
        const Q t254 = c[0] * t237;
        const P t255 = part<0>(t254);
        const P t256 = part<1>(t254);
        const P t257 = shuffled<0, 2>(t255, t256);
        const Q t258 = c[1] * t250;
        const P t259 = part<0>(t258);
        const P t260 = part<1>(t258);
        const P t261 = shuffled<0, 2>(t259, t260);
        const P t262 = t257 - t261;
        const P t263 = part<0>(t228);
        const P t264 = part<1>(t228);
        const P t265 = shuffled<1, 3>(t263, t264);
        const P t266 = shuffled<1, 3>(t255, t256);
        const P t267 = t265 - t266;
        const P t268 = shuffled<0, 2>(t263, t264);
        const Q t269 = c[1] * t237;
        const P t270 = part<0>(t269);
        const P t271 = part<1>(t269);
        const P t272 = shuffled<0, 2>(t270, t271);
        const P t273 = t268 - t272;
        const P t274 = shuffled<1, 3>(t270, t271);
        const Q t275 = c[0] * t250;
        const P t276 = part<0>(t275);
        const P t277 = part<1>(t275);
        const P t278 = shuffled<1, 3>(t276, t277);
        const P t279 = t274 + t278;
        // complex block of 5, multiplier 2
        const Q t280 = t100 + t42;
        const Q t281 = t280 + t5;
        const Q t282 = c[0] * t100;
        const Q t283 = c[1] * t42;
        const Q t284 = t282 - t283;
        const Q t285 = t284 + t5;
        const Q t286 = c[2] * t101;
        const Q t287 = c[3] * t43;
        const Q t288 = t286 - t287;
        const Q t289 = c[1] * t100;
        const Q t290 = t5 - t289;
        const Q t291 = c[0] * t42;
        const Q t292 = t290 + t291;
        const Q t293 = c[3] * t101;
        const Q t294 = c[2] * t43;
        const Q t295 = t293 + t294;
        const Q t296 = shuffled<1, 0, 3, 2>(t288);
        const Q t297 = flipped<0, 1, 0, 1>(t296);
        const Q t298 = t285 + t297;
        // complex block of 5, multiplier 2
        const Q t299 = t192 + t167;
        const Q t300 = shuffled<0, 1, 4, 5>(t299, t298);
        const Q t301 = shuffled<2, 3, 6, 7>(t299, t298);
        // complex block of 2
        const Q t302 = t300 + t301;
        const Q t303 = t300 - t301;
        const Q t304 = shuffled<0, 1, 6, 7>(t302, t303);
        io.pairs(4, 5, t304);
        const Q t305 = shuffled<0, 1, 6, 7>(t303, t302);
        io.pairs(29, 30, t305);
        // complex block of 5, multiplier 2
        const Q t306 = t285 - t297;
        // complex block of 5, multiplier 2
        const Q t307 = t222 + t200;
        const Q t308 = c[0] * t220;
        const Q t309 = t227 + t308;
        const Q t310 = c[3] * t211;
        const Q t311 = c[2] * t221;
        const Q t312 = t310 + t311;
        const Q t313 = shuffled<1, 0, 3, 2>(t312);
        const Q t314 = flipped<0, 1, 0, 1>(t313);
        const Q t315 = t309 + t314;
        const Q t316 = t309 - t314;
        // complex block of 5, multiplier 2
        const Q t317 = c[0] * t159;
        const Q t318 = t166 + t317;
        const Q t319 = c[3] * t148;
        const Q t320 = Q(-c[2], c[2], -c[2], c[2]) * t160;
        const Q t321 = t319 + t320;
        const Q t322 = shuffled<1, 0, 3, 2>(t321);
        const Q t323 = flipped<0, 1, 0, 1>(t322);
        const Q t324 = t318 + t323;
        const Q t325 = t318 - t323;
        const P t326 = shuffled<0, 2>(t262, t267);
        const P t327 = shuffled<1, 3>(t262, t267);
        const Q t328 = joined(t326, t327);
        const Q t329 = shuffled<0, 5, 2, 7>(t228, t258);
        const Q t330 = flipped<0, 1, 0, 1>(t329);
        // complex block of 5, multiplier 2
        const Q t331 = t328 + t330;
        const Q t332 = c[2] * t240;
        const Q t333 = c[3] * t251;
        const Q t334 = t332 - t333;
        const Q t335 = shuffled<1, 0, 3, 2>(t334);
        const Q t336 = flipped<0, 1, 0, 1>(t335);
        const Q t337 = t331 + t336;
        const Q t338 = t331 - t336;
        const Q t339 = shuffled<0, 1, 4, 5>(t307, t338);
        const Q t340 = shuffled<2, 3, 6, 7>(t307, t338);
        // complex block of 2
        const Q t341 = t339 + t340;
        const Q t342 = t339 - t340;
        const Q t343 = shuffled<0, 1, 6, 7>(t341, t342);
        io.pairs(2, 3, t343);
        const Q t344 = shuffled<0, 1, 6, 7>(t342, t341);
        io.pairs(27, 28, t344);
        const Q t345 = shuffled<0, 1, 4, 5>(t315, t337);
        const Q t346 = shuffled<2, 3, 6, 7>(t315, t337);
        // complex block of 2
        const Q t347 = t345 + t346;
        const Q t348 = t345 - t346;
        const Q t349 = shuffled<0, 1, 6, 7>(t347, t348);
        io.pairs(12, 13, t349);
        const Q t350 = shuffled<0, 1, 6, 7>(t348, t347);
        io.pairs(37, 38, t350);
        const Q t351 = shuffled<0, 1, 4, 5>(t324, t316);
        const Q t352 = shuffled<2, 3, 6, 7>(t324, t316);
        // complex block of 2
        const Q t353 = t351 + t352;
        const Q t354 = t351 - t352;
        const Q t355 = shuffled<0, 1, 6, 7>(t353, t354);
        io.pairs(16, 17, t355);
        const Q t356 = shuffled<0, 1, 6, 7>(t354, t353);
        io.pairs(41, 42, t356);
        const Q t357 = shuffled<0, 1, 4, 5>(t306, t325);
        const Q t358 = shuffled<2, 3, 6, 7>(t306, t325);
        // complex block of 2
        const Q t359 = t357 + t358;
        const Q t360 = t357 - t358;
        const Q t361 = shuffled<0, 1, 6, 7>(t359, t360);
        io.pairs(20, 21, t361);
        const Q t362 = shuffled<0, 1, 6, 7>(t360, t359);
        io.pairs(45, 46, t362);
        const Q t363 = shuffled<1, 0, 3, 2>(t295);
        const Q t364 = flipped<0, 1, 0, 1>(t363);
        // complex block of 5, multiplier 2
        const Q t365 = t292 + t364;
        // complex block of 5, multiplier 2
        const Q t366 = t164 + t138;
        const Q t367 = c[2] * t148;
        const Q t368 = Q(c[3], -c[3], c[3], -c[3]) * t160;
        const Q t369 = t367 + t368;
        const Q t370 = shuffled<1, 0, 3, 2>(t369);
        const Q t371 = flipped<0, 1, 0, 1>(t370);
        const Q t372 = t366 + t371;
        const Q t373 = t366 - t371;
        const Q t374 = shuffled<0, 1, 4, 5>(t281, t373);
        const Q t375 = shuffled<2, 3, 6, 7>(t281, t373);
        // complex block of 2
        const Q t376 = t374 + t375;
        const Q t377 = t374 - t375;
        const Q t378 = shuffled<0, 1, 6, 7>(t376, t377);
        io.pairs(0, 1, t378);
        const Q t379 = shuffled<0, 1, 6, 7>(t377, t376);
        io.pairs(25, 26, t379);
        const Q t380 = shuffled<0, 1, 4, 5>(t365, t372);
        const Q t381 = shuffled<2, 3, 6, 7>(t365, t372);
        // complex block of 2
        const Q t382 = t380 + t381;
        const Q t383 = t380 - t381;
        const Q t384 = shuffled<0, 1, 6, 7>(t382, t383);
        io.pairs(10, 11, t384);
        const Q t385 = shuffled<0, 1, 6, 7>(t383, t382);
        io.pairs(35, 36, t385);
        // complex block of 5, multiplier 2
        const Q t386 = t292 - t364;
        // complex block of 5, multiplier 2
        const Q t387 = t225 + t200;
        const Q t388 = c[2] * t211;
        const Q t389 = c[3] * t221;
        const Q t390 = t388 - t389;
        const Q t391 = shuffled<1, 0, 3, 2>(t390);
        const Q t392 = flipped<0, 1, 0, 1>(t391);
        const Q t393 = t387 + t392;
        const Q t394 = t387 - t392;
        // complex block of 5, multiplier 2
        const Q t395 = Q(c[0], -c[0], c[0], -c[0]) * t187;
        const Q t396 = t197 + t395;
        const Q t397 = c[3] * t178;
        const Q t398 = c[2] * t190;
        const Q t399 = t397 + t398;
        const Q t400 = shuffled<1, 0, 3, 2>(t399);
        const Q t401 = flipped<0, 1, 0, 1>(t400);
        const Q t402 = t396 + t401;
        const Q t403 = t396 - t401;
        // complex block of 5, multiplier 2
        const Q t404 = t161 + t138;
        const P t405 = shuffled<0, 2>(t273, t279);
        const P t406 = shuffled<1, 3>(t273, t279);
        const Q t407 = joined(t405, t406);
        const Q t408 = shuffled<0, 5, 2, 7>(t275, t228);
        // complex block of 5, multiplier 2
        const Q t409 = t407 + t408;
        const Q t410 = c[3] * t240;
        const Q t411 = c[2] * t251;
        const Q t412 = t410 + t411;
        const Q t413 = shuffled<1, 0, 3, 2>(t412);
        const Q t414 = flipped<0, 1, 0, 1>(t413);
        const Q t415 = t409 + t414;
        const Q t416 = t409 - t414;
        const Q t417 = shuffled<0, 1, 4, 5>(t404, t393);
        const Q t418 = shuffled<2, 3, 6, 7>(t404, t393);
        // complex block of 2
        const Q t419 = t417 + t418;
        const Q t420 = t417 - t418;
        const Q t421 = shuffled<0, 1, 6, 7>(t419, t420);
        io.pairs(6, 7, t421);
        const Q t422 = shuffled<0, 1, 6, 7>(t420, t419);
        io.pairs(31, 32, t422);
        const Q t423 = shuffled<0, 1, 4, 5>(t402, t386);
        const Q t424 = shuffled<2, 3, 6, 7>(t402, t386);
        // complex block of 2
        const Q t425 = t423 + t424;
        const Q t426 = t423 - t424;
        const Q t427 = shuffled<0, 1, 6, 7>(t425, t426);
        io.pairs(14, 15, t427);
        const Q t428 = shuffled<0, 1, 6, 7>(t426, t425);
        io.pairs(39, 40, t428);
        const Q t429 = shuffled<0, 1, 4, 5>(t415, t403);
        const Q t430 = shuffled<2, 3, 6, 7>(t415, t403);
        // complex block of 2
        const Q t431 = t429 + t430;
        const Q t432 = t429 - t430;
        const Q t433 = shuffled<0, 1, 6, 7>(t431, t432);
        io.pairs(18, 19, t433);
        const Q t434 = shuffled<0, 1, 6, 7>(t432, t431);
        io.pairs(43, 44, t434);
        const Q t435 = shuffled<0, 1, 4, 5>(t394, t416);
        const Q t436 = shuffled<2, 3, 6, 7>(t394, t416);
        // complex block of 2
        const Q t437 = t435 + t436;
        const Q t438 = t435 - t436;
        const Q t439 = shuffled<0, 1, 6, 7>(t437, t438);
        io.pairs(22, 23, t439);
        const Q t440 = shuffled<0, 1, 6, 7>(t438, t437);
        io.pairs(47, 48, t440);
        // complex block of 5, multiplier 2
        const Q t441 = t195 + t167;
        const Q t442 = c[2] * t178;
        const Q t443 = c[3] * t190;
        const Q t444 = t442 - t443;
        const Q t445 = shuffled<1, 0, 3, 2>(t444);
        const Q t446 = flipped<0, 1, 0, 1>(t445);
        const Q t447 = t441 + t446;
        const Q t448 = t441 - t446;
        // complex block of 5, multiplier 2
        const Q t449 = t253 + t228;
        const P t450 = part<0>(t448);
        const P t451 = part<1>(t448);
        // complex block of 2
        const P t452 = t450 + t451;
        io.pair(24, t452);
        const P t453 = t450 - t451;
        io.pair(49, t453);
        const Q t454 = shuffled<0, 1, 4, 5>(t449, t447);
        const Q t455 = shuffled<2, 3, 6, 7>(t449, t447);
        // complex block of 2
        const Q t456 = t454 + t455;
        const Q t457 = t454 - t455;
        const Q t458 = shuffled<0, 1, 6, 7>(t456, t457);
        io.pairs(8, 9, t458);
        const Q t459 = shuffled<0, 1, 6, 7>(t457, t456);
        io.pairs(33, 34, t459);
    }
};

}  // namespace zulg
