// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 50.
// Complex DFT of 50 points, prime-factor, order 25, 2; two lines of a stage to a register.
// 123 sums, 85 differences, 112 products of registers, which do the 1352 steps of the graph, those with
// `scale` included; 88 shuffles, 26 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<50> {
    static constexpr int steps = 1352;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.42577929156507266,  // c[4]: -cos 2 pi 8/25
        0.9048270524660196,  // c[5]: sin 2 pi 8/25
        0.18738131458572463,  // c[6]: -cos 2 pi 18/25
        0.9822872507286887,  // c[7]: -sin 2 pi 18/25
        0.9685831611286311,  // c[8]: cos 2 pi 24/25
        0.2486898871648548,  // c[9]: -sin 2 pi 24/25
        0.7705132427757893,  // c[10]: -sin 2 pi 16/25
        0.6374239897486897,  // c[11]: -cos 2 pi 16/25
        0.5358267949789967,  // c[12]: cos 2 pi 4/25
        0.8443279255020151,  // c[13]: sin 2 pi 4/25
        0.06279051952931337,  // c[14]: cos 2 pi 6/25
        0.9980267284282716,  // c[15]: sin 2 pi 6/25
        0.9921147013144779,  // c[16]: -cos 2 pi 12/25
        0.12533323356430426,  // c[17]: sin 2 pi 12/25
        0.8763066800438636,  // c[18]: cos 2 pi 2/25
        0.48175367410171527,  // c[19]: sin 2 pi 2/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x12_37 = io.pairs(12, 37);
        const Q x42_17 = io.pairs(42, 17);
        // complex block of 5, multiplier 2
        const Q t0 = x12_37 + x42_17;
        const Q x2_27 = io.pairs(2, 27);
        const Q t1 = c[0] * t0;
        const Q t2 = x2_27 - t1;
        const Q x32_7 = io.pairs(32, 7);
        const Q x22_47 = io.pairs(22, 47);
        const Q t3 = x32_7 + x22_47;
        const Q t4 = c[1] * t3;
        const Q t5 = t2 + t4;
        const Q t6 = x12_37 - x42_17;
        const Q t7 = x32_7 - x22_47;
        const Q t8 = c[2] * t6;
        const Q t9 = c[3] * t7;
        const Q t10 = t8 + t9;
        const Q t11 = shuffled<1, 0, 3, 2>(t10);
        const Q t12 = flipped<1, 0, 1, 0>(t11);
        const Q t13 = t5 + t12;
        // complex block of 25, multiplier 2
        const Q t14 = Q(-c[4], c[4], -c[4], c[4]) * t13;
        const Q t15 = shuffled<1, 0, 3, 2>(t13);
        const Q t16 = c[5] * t15;
        const Q t17 = t14 + t16;
        const Q x18_43 = io.pairs(18, 43);
        const Q x48_23 = io.pairs(48, 23);
        // complex block of 5, multiplier 2
        const Q t18 = x18_43 + x48_23;
        const Q x8_33 = io.pairs(8, 33);
        const Q t19 = c[0] * t18;
        const Q t20 = x8_33 - t19;
        const Q x38_13 = io.pairs(38, 13);
        const Q x28_3 = io.pairs(28, 3);
        const Q t21 = x38_13 + x28_3;
        const Q t22 = c[1] * t21;
        const Q t23 = t20 + t22;
        const Q t24 = x18_43 - x48_23;
        const Q t25 = x38_13 - x28_3;
        const Q t26 = c[2] * t24;
        const Q t27 = c[3] * t25;
        const Q t28 = t26 + t27;
        const Q t29 = shuffled<1, 0, 3, 2>(t28);
        const Q t30 = flipped<1, 0, 1, 0>(t29);
        const Q t31 = t23 + t30;
        // complex block of 25, multiplier 2
        const Q t32 = Q(-c[6], c[6], -c[6], c[6]) * t31;
        const Q t33 = shuffled<1, 0, 3, 2>(t31);
        const Q t34 = c[7] * t33;
        const Q t35 = t32 + t34;
        // complex block of 5, multiplier 2
        const Q t36 = t17 + t35;
        const Q x16_41 = io.pairs(16, 41);
        const Q x46_21 = io.pairs(46, 21);
        // complex block of 5, multiplier 2
        const Q t37 = x16_41 + x46_21;
        const Q x6_31 = io.pairs(6, 31);
        const Q t38 = c[0] * t37;
        const Q t39 = x6_31 - t38;
        const Q x36_11 = io.pairs(36, 11);
        const Q x26_1 = io.pairs(26, 1);
        const Q t40 = x36_11 + x26_1;
        const Q t41 = c[1] * t40;
        const Q t42 = t39 + t41;
        const Q t43 = x16_41 - x46_21;
        const Q t44 = x36_11 - x26_1;
        const Q t45 = c[2] * t43;
        const Q t46 = c[3] * t44;
        const Q t47 = t45 + t46;
        const Q t48 = shuffled<1, 0, 3, 2>(t47);
        const Q t49 = flipped<1, 0, 1, 0>(t48);
        const Q t50 = t42 + t49;
        // complex block of 25, multiplier 2
        const Q t51 = c[8] * t50;
        const Q t52 = shuffled<1, 0, 3, 2>(t50);
        const Q t53 = Q(-c[9], c[9], -c[9], c[9]) * t52;
        const Q t54 = t51 + t53;
        const Q x14_39 = io.pairs(14, 39);
        const Q x44_19 = io.pairs(44, 19);
        // complex block of 5, multiplier 2
        const Q t55 = x14_39 + x44_19;
        const Q x4_29 = io.pairs(4, 29);
        const Q t56 = c[0] * t55;
        const Q t57 = x4_29 - t56;
        const Q x34_9 = io.pairs(34, 9);
        const Q x24_49 = io.pairs(24, 49);
        const Q t58 = x34_9 + x24_49;
        const Q t59 = c[1] * t58;
        const Q t60 = t57 + t59;
        const Q t61 = x14_39 - x44_19;
        const Q t62 = x34_9 - x24_49;
        const Q t63 = c[2] * t61;
        const Q t64 = c[3] * t62;
        const Q t65 = t63 + t64;
        const Q t66 = shuffled<1, 0, 3, 2>(t65);
        const Q t67 = flipped<1, 0, 1, 0>(t66);
        const Q t68 = t60 + t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        // complex block of 25, multiplier 2
        const Q t70 = c[10] * t69;
        const Q t71 = Q(c[11], -c[11], c[11], -c[11]) * t68;
        const Q t72 = t70 + t71;
        const Q t73 = flipped<1, 0, 1, 0>(t72);
        // complex block of 5, multiplier 2
        const Q t74 = t54 + t73;
        const Q t75 = c[1] * t36;
        const P t76 = part<0>(t75);
        const V t77 = part<0>(t76);
        const Q t78 = c[0] * t74;
        const P t79 = part<0>(t78);
        const V t80 = part<0>(t79);
        const V t81 = t77 - t80;
        const Q x10_35 = io.pairs(10, 35);
        const Q x40_15 = io.pairs(40, 15);
        // complex block of 5, multiplier 2
        const Q t82 = x10_35 + x40_15;
        const Q x0_25 = io.pairs(0, 25);
        const Q t83 = c[0] * t82;
        const Q t84 = x0_25 - t83;
        const Q x30_5 = io.pairs(30, 5);
        const Q x20_45 = io.pairs(20, 45);
        const Q t85 = x30_5 + x20_45;
        const Q t86 = c[1] * t85;
        const Q t87 = t84 + t86;
        const Q t88 = x10_35 - x40_15;
        const Q t89 = x30_5 - x20_45;
        const Q t90 = c[2] * t88;
        const Q t91 = c[3] * t89;
        const Q t92 = t90 + t91;
        const Q t93 = shuffled<1, 0, 3, 2>(t92);
        const Q t94 = flipped<1, 0, 1, 0>(t93);
        const Q t95 = t87 + t94;
        const P t96 = part<0>(t95);
        const V t97 = part<1>(t96);
        const V t98 = part<1>(t76);
        // complex block of 5, multiplier 2
        const V t99 = t97 - t98;
        const V t100 = part<0>(t96);
        const Q t101 = c[0] * t36;
        const P t102 = part<0>(t101);
        const V t103 = part<0>(t102);
        const V t104 = t100 - t103;
        const V t105 = part<1>(t102);
        const Q t106 = c[1] * t74;
        const P t107 = part<0>(t106);
        const V t108 = part<1>(t107);
        const V t109 = t105 + t108;
        // complex block of 5, multiplier 2
        const Q t110 = t82 + t85;
        const Q t111 = t110 + x0_25;
        const Q t112 = c[1] * t82;
        const Q t113 = c[0] * t85;
        const Q t114 = t112 - t113;
        const Q t115 = t114 + x0_25;
        const Q t116 = c[3] * t88;
        const Q t117 = c[2] * t89;
        const Q t118 = t116 - t117;
        const Q t119 = shuffled<1, 0, 3, 2>(t118);
        const Q t120 = flipped<0, 1, 0, 1>(t119);
        const Q t121 = t115 + t120;
        const Q t122 = t115 - t120;
        const Q t123 = t87 - t94;
        // complex block of 5, multiplier 2
        const Q t124 = t0 + t3;
        const Q t125 = t124 + x2_27;
        const Q t126 = c[1] * t0;
        const Q t127 = c[0] * t3;
        const Q t128 = t126 - t127;
        const Q t129 = t128 + x2_27;
        const Q t130 = c[3] * t6;
        const Q t131 = c[2] * t7;
        const Q t132 = t130 - t131;
        const Q t133 = shuffled<1, 0, 3, 2>(t132);
        const Q t134 = flipped<0, 1, 0, 1>(t133);
        const Q t135 = t129 + t134;
        const Q t136 = t129 - t134;
        const Q t137 = t5 - t12;
        // complex block of 5, multiplier 2
        const Q t138 = t55 + t58;
        const Q t139 = t138 + x4_29;
        const Q t140 = c[1] * t55;
        const Q t141 = c[0] * t58;
        const Q t142 = t140 - t141;
        const Q t143 = t142 + x4_29;
        const Q t144 = c[3] * t61;
        const Q t145 = c[2] * t62;
        const Q t146 = t144 - t145;
        const Q t147 = shuffled<1, 0, 3, 2>(t146);
        const Q t148 = flipped<0, 1, 0, 1>(t147);
        const Q t149 = t143 + t148;
        const Q t150 = t143 - t148;
        const Q t151 = t60 - t67;
        // complex block of 5, multiplier 2
        const Q t152 = t37 + t40;
        const Q t153 = t152 + x6_31;
        const Q t154 = c[1] * t37;
        const Q t155 = c[0] * t40;
        const Q t156 = t154 - t155;
        const Q t157 = t156 + x6_31;
        const Q t158 = c[3] * t43;
        const Q t159 = c[2] * t44;
        const Q t160 = t158 - t159;
        const Q t161 = shuffled<1, 0, 3, 2>(t160);
        const Q t162 = flipped<0, 1, 0, 1>(t161);
        const Q t163 = t157 + t162;
        const Q t164 = t157 - t162;
        const Q t165 = t42 - t49;
        // complex block of 5, multiplier 2
        const Q t166 = t18 + t21;
        const Q t167 = t166 + x8_33;
        const Q t168 = c[1] * t18;
        const Q t169 = c[0] * t21;
        const Q t170 = t168 - t169;
        const Q t171 = t170 + x8_33;
        const Q t172 = c[3] * t24;
        const Q t173 = c[2] * t25;
        const Q t174 = t172 - t173;
        const Q t175 = shuffled<1, 0, 3, 2>(t174);
        const Q t176 = flipped<0, 1, 0, 1>(t175);
        const Q t177 = t171 + t176;
        const Q t178 = t171 - t176;
        const Q t179 = t23 - t30;
        // complex block of 5, multiplier 2
        const Q t180 = t125 + t167;
        const Q t181 = t125 - t167;
        const Q t182 = t153 + t139;
        const Q t183 = t153 - t139;
        const Q t184 = t180 + t182;
        const Q t185 = t184 + t111;
        const Q t186 = c[1] * t180;
        const Q t187 = c[0] * t182;
        const Q t188 = t186 - t187;
        const Q t189 = t188 + t111;
        const Q t190 = c[3] * t181;
        const Q t191 = c[2] * t183;
        const Q t192 = t190 - t191;
        const Q t193 = shuffled<1, 0, 3, 2>(t192);
        const Q t194 = flipped<0, 1, 0, 1>(t193);
        const Q t195 = t189 + t194;
        const Q t196 = t189 - t194;
        const Q t197 = c[0] * t180;
        const Q t198 = t111 - t197;
        const Q t199 = c[1] * t182;
        const Q t200 = t198 + t199;
        const Q t201 = c[2] * t181;
        const Q t202 = c[3] * t183;
        const Q t203 = t201 + t202;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = flipped<0, 1, 0, 1>(t204);
        const Q t206 = t200 + t205;
        const Q t207 = t200 - t205;
        // complex block of 25, multiplier 2
        const Q t208 = c[18] * t137;
        const Q t209 = shuffled<1, 0, 3, 2>(t137);
        const Q t210 = Q(c[19], -c[19], c[19], -c[19]) * t209;
        const Q t211 = t208 + t210;
        const Q t212 = c[12] * t151;
        const Q t213 = shuffled<1, 0, 3, 2>(t151);
        const Q t214 = Q(c[13], -c[13], c[13], -c[13]) * t213;
        const Q t215 = t212 + t214;
        const Q t216 = c[14] * t165;
        const Q t217 = shuffled<1, 0, 3, 2>(t165);
        const Q t218 = Q(c[15], -c[15], c[15], -c[15]) * t217;
        const Q t219 = t216 + t218;
        const Q t220 = Q(-c[4], c[4], -c[4], c[4]) * t179;
        const Q t221 = shuffled<1, 0, 3, 2>(t179);
        const Q t222 = c[5] * t221;
        const Q t223 = t220 + t222;
        const Q t224 = flipped<0, 1, 0, 1>(t223);
        // complex block of 5, multiplier 2
        const Q t225 = t211 + t224;
        const Q t226 = t211 - t224;
        const Q t227 = t219 + t215;
        const Q t228 = t219 - t215;
        const Q t229 = t225 + t227;
        const Q t230 = t229 + t123;
        const Q t231 = c[1] * t225;
        const Q t232 = c[0] * t227;
        const Q t233 = t231 - t232;
        const Q t234 = t233 + t123;
        const Q t235 = c[3] * t226;
        const Q t236 = c[2] * t228;
        const Q t237 = t235 - t236;
        const Q t238 = shuffled<1, 0, 3, 2>(t237);
        const Q t239 = flipped<0, 1, 0, 1>(t238);
        const Q t240 = t234 + t239;
        const Q t241 = t234 - t239;
        const Q t242 = c[0] * t225;
        const Q t243 = t123 - t242;
        const Q t244 = c[1] * t227;
        const Q t245 = t243 + t244;
        const Q t246 = c[2] * t226;
        const Q t247 = c[3] * t228;
        const Q t248 = t246 + t247;
        const Q t249 = shuffled<1, 0, 3, 2>(t248);
        const Q t250 = flipped<0, 1, 0, 1>(t249);
        const Q t251 = t245 + t250;
        const Q t252 = t245 - t250;
        // complex block of 25, multiplier 2
        const Q t253 = c[12] * t136;
        const Q t254 = shuffled<1, 0, 3, 2>(t136);
        const Q t255 = Q(c[13], -c[13], c[13], -c[13]) * t254;
        const Q t256 = t253 + t255;
        const Q t257 = Q(-c[4], c[4], -c[4], c[4]) * t150;
        const Q t258 = shuffled<1, 0, 3, 2>(t150);
        const Q t259 = c[5] * t258;
        const Q t260 = t257 + t259;
        const Q t261 = Q(-c[16], c[16], -c[16], c[16]) * t164;
        const Q t262 = shuffled<1, 0, 3, 2>(t164);
        const Q t263 = c[17] * t262;
        const Q t264 = t261 + t263;
        const Q t265 = shuffled<1, 0, 3, 2>(t178);
        const Q t266 = c[10] * t265;
        const Q t267 = Q(c[11], -c[11], c[11], -c[11]) * t178;
        const Q t268 = t266 + t267;
        const Q t269 = flipped<1, 0, 1, 0>(t268);
        // complex block of 5, multiplier 2
        const Q t270 = t256 + t269;
        const Q t271 = t256 - t269;
        const Q t272 = t264 + t260;
        const Q t273 = shuffled<0, 5, 2, 7>(t264, t260);
        const Q t274 = shuffled<0, 5, 2, 7>(t260, t264);
        const Q t275 = t273 - t274;
        const Q t276 = flipped<0, 1, 0, 1>(t272);
        const Q t277 = t270 + t276;
        const Q t278 = t277 + t122;
        const Q t279 = c[1] * t270;
        const Q t280 = Q(-c[0], c[0], -c[0], c[0]) * t272;
        const Q t281 = t279 + t280;
        const Q t282 = t281 + t122;
        const Q t283 = c[3] * t271;
        const Q t284 = c[2] * t275;
        const Q t285 = t283 - t284;
        const Q t286 = shuffled<1, 0, 3, 2>(t285);
        const Q t287 = flipped<0, 1, 0, 1>(t286);
        const Q t288 = t282 + t287;
        const Q t289 = t282 - t287;
        const Q t290 = c[0] * t270;
        const Q t291 = t122 - t290;
        const Q t292 = Q(c[1], -c[1], c[1], -c[1]) * t272;
        const Q t293 = t291 + t292;
        const Q t294 = c[2] * t271;
        const Q t295 = c[3] * t275;
        const Q t296 = t294 + t295;
        const Q t297 = shuffled<1, 0, 3, 2>(t296);
        const Q t298 = flipped<0, 1, 0, 1>(t297);
        const Q t299 = t293 + t298;
        const Q t300 = t293 - t298;
        // complex block of 25, multiplier 2
        const Q t301 = c[14] * t135;
        const Q t302 = shuffled<1, 0, 3, 2>(t135);
        const Q t303 = Q(c[15], -c[15], c[15], -c[15]) * t302;
        const Q t304 = t301 + t303;
        const Q t305 = Q(-c[16], c[16], -c[16], c[16]) * t149;
        const Q t306 = shuffled<1, 0, 3, 2>(t149);
        const Q t307 = c[17] * t306;
        const Q t308 = t305 + t307;
        const Q t309 = shuffled<1, 0, 3, 2>(t163);
        const Q t310 = c[7] * t309;
        const Q t311 = Q(c[6], -c[6], c[6], -c[6]) * t163;
        const Q t312 = t310 + t311;
        const Q t313 = c[8] * t177;
        const Q t314 = shuffled<1, 0, 3, 2>(t177);
        const Q t315 = Q(-c[9], c[9], -c[9], c[9]) * t314;
        const Q t316 = t313 + t315;
        // complex block of 5, multiplier 2
        const Q t317 = t304 + t316;
        const Q t318 = t304 - t316;
        const Q t319 = shuffled<0, 5, 2, 7>(t308, t312);
        const Q t320 = shuffled<0, 5, 2, 7>(t312, t308);
        const Q t321 = t319 - t320;
        const Q t322 = t312 + t308;
        const Q t323 = t317 + t321;
        const Q t324 = t323 + t121;
        const Q t325 = c[1] * t317;
        const Q t326 = c[0] * t321;
        const Q t327 = t325 - t326;
        const Q t328 = t327 + t121;
        const Q t329 = c[3] * t318;
        const Q t330 = Q(c[2], -c[2], c[2], -c[2]) * t322;
        const Q t331 = t329 + t330;
        const Q t332 = shuffled<1, 0, 3, 2>(t331);
        const Q t333 = flipped<0, 1, 0, 1>(t332);
        const Q t334 = t328 + t333;
        const Q t335 = t328 - t333;
        const Q t336 = c[0] * t317;
        const Q t337 = t121 - t336;
        const Q t338 = c[1] * t321;
        const Q t339 = t337 + t338;
        const Q t340 = c[2] * t318;
        const Q t341 = Q(-c[3], c[3], -c[3], c[3]) * t322;
        const Q t342 = t340 + t341;
        const Q t343 = shuffled<1, 0, 3, 2>(t342);
        const Q t344 = flipped<0, 1, 0, 1>(t343);
        const Q t345 = t339 + t344;
        const Q t346 = t339 - t344;
        const Q t347 = shuffled<0, 5, 2, 7>(t17, t35);
        const Q t348 = shuffled<0, 5, 2, 7>(t35, t17);
        // complex block of 5, multiplier 2
        const Q t349 = t347 - t348;
        const Q t350 = t54 - t73;
        const Q t351 = flipped<0, 1, 0, 1>(t36);
        const Q t352 = t74 + t351;
        const Q t353 = t352 + t95;
        const P t354 = part<1>(t75);
        const V t355 = part<0>(t354);
        const P t356 = part<1>(t78);
        const V t357 = part<0>(t356);
        // complex block of 5, multiplier 2
        const V t358 = t355 - t357;
        const P t359 = part<1>(t95);
        const V t360 = part<1>(t359);
        const V t361 = part<1>(t354);
        const V t362 = t360 - t361;
        const P t363 = joined(t81, t99);
        const P t364 = joined(t358, t362);
        const Q t365 = joined(t363, t364);
        const Q t366 = shuffled<0, 5, 2, 7>(t95, t78);
        const Q t367 = flipped<0, 1, 0, 1>(t366);
        // complex block of 5, multiplier 2
        const Q t368 = t365 + t367;
        const Q t369 = c[3] * t349;
        const Q t370 = c[2] * t350;
        const Q t371 = t369 - t370;
        const Q t372 = shuffled<1, 0, 3, 2>(t371);
        const Q t373 = flipped<0, 1, 0, 1>(t372);
        const Q t374 = t368 + t373;
        const Q t375 = t368 - t373;
        const V t376 = part<0>(t359);
        const P t377 = part<1>(t101);
        const V t378 = part<0>(t377);
        // complex block of 5, multiplier 2
        const V t379 = t376 - t378;
        const V t380 = part<1>(t377);
        const P t381 = part<1>(t106);
        const V t382 = part<1>(t381);
        const V t383 = t380 + t382;
        const P t384 = joined(t104, t109);
        const P t385 = joined(t379, t383);
        const Q t386 = joined(t384, t385);
        const Q t387 = shuffled<0, 5, 2, 7>(t106, t95);
        // complex block of 5, multiplier 2
        const Q t388 = t386 + t387;
        const Q t389 = c[2] * t349;
        const Q t390 = c[3] * t350;
        const Q t391 = t389 + t390;
        const Q t392 = shuffled<1, 0, 3, 2>(t391);
        const Q t393 = flipped<0, 1, 0, 1>(t392);
        const Q t394 = t388 + t393;
        const Q t395 = t388 - t393;
        const Q t396 = shuffled<0, 1, 4, 5>(t185, t230);
        const Q t397 = shuffled<2, 3, 6, 7>(t185, t230);
        // complex block of 2
        const Q t398 = t396 + t397;
        io.pairs(0, 2, t398);
        const Q t399 = t396 - t397;
        io.pairs(25, 27, t399);
        const Q t400 = shuffled<0, 1, 4, 5>(t278, t324);
        const Q t401 = shuffled<2, 3, 6, 7>(t278, t324);
        // complex block of 2
        const Q t402 = t400 + t401;
        io.pairs(4, 6, t402);
        const Q t403 = t400 - t401;
        io.pairs(29, 31, t403);
        const Q t404 = shuffled<0, 1, 4, 5>(t353, t206);
        const Q t405 = shuffled<2, 3, 6, 7>(t353, t206);
        // complex block of 2
        const Q t406 = t404 + t405;
        io.pairs(8, 10, t406);
        const Q t407 = t404 - t405;
        io.pairs(33, 35, t407);
        const Q t408 = shuffled<0, 1, 4, 5>(t251, t299);
        const Q t409 = shuffled<2, 3, 6, 7>(t251, t299);
        // complex block of 2
        const Q t410 = t408 + t409;
        io.pairs(12, 14, t410);
        const Q t411 = t408 - t409;
        io.pairs(37, 39, t411);
        const Q t412 = shuffled<0, 1, 4, 5>(t345, t394);
        const Q t413 = shuffled<2, 3, 6, 7>(t345, t394);
        // complex block of 2
        const Q t414 = t412 + t413;
        io.pairs(16, 18, t414);
        const Q t415 = t412 - t413;
        io.pairs(41, 43, t415);
        const Q t416 = shuffled<0, 1, 4, 5>(t196, t241);
        const Q t417 = shuffled<2, 3, 6, 7>(t196, t241);
        // complex block of 2
        const Q t418 = t416 + t417;
        io.pairs(20, 22, t418);
        const Q t419 = t416 - t417;
        io.pairs(45, 47, t419);
        const Q t420 = shuffled<0, 1, 4, 5>(t289, t335);
        const Q t421 = shuffled<2, 3, 6, 7>(t289, t335);
        // complex block of 2
        const Q t422 = t420 + t421;
        io.pairs(24, 26, t422);
        const Q t423 = t420 - t421;
        io.pairs(49, 1, t423);
        const Q t424 = shuffled<0, 1, 4, 5>(t375, t195);
        const Q t425 = shuffled<2, 3, 6, 7>(t375, t195);
        // complex block of 2
        const Q t426 = t424 + t425;
        io.pairs(28, 30, t426);
        const Q t427 = t424 - t425;
        io.pairs(3, 5, t427);
        const Q t428 = shuffled<0, 1, 4, 5>(t240, t288);
        const Q t429 = shuffled<2, 3, 6, 7>(t240, t288);
        // complex block of 2
        const Q t430 = t428 + t429;
        io.pairs(32, 34, t430);
        const Q t431 = t428 - t429;
        io.pairs(7, 9, t431);
        const Q t432 = shuffled<0, 1, 4, 5>(t334, t374);
        const Q t433 = shuffled<2, 3, 6, 7>(t334, t374);
        // complex block of 2
        const Q t434 = t432 + t433;
        io.pairs(36, 38, t434);
        const Q t435 = t432 - t433;
        io.pairs(11, 13, t435);
        const Q t436 = shuffled<0, 1, 4, 5>(t207, t252);
        const Q t437 = shuffled<2, 3, 6, 7>(t207, t252);
        // complex block of 2
        const Q t438 = t436 + t437;
        io.pairs(40, 42, t438);
        const Q t439 = t436 - t437;
        io.pairs(15, 17, t439);
        const Q t440 = shuffled<0, 1, 4, 5>(t300, t346);
        const Q t441 = shuffled<2, 3, 6, 7>(t300, t346);
        // complex block of 2
        const Q t442 = t440 + t441;
        io.pairs(44, 46, t442);
        const Q t443 = t440 - t441;
        io.pairs(19, 21, t443);
        const P t444 = part<0>(t395);
        const P t445 = part<1>(t395);
        // complex block of 2
        const P t446 = t444 + t445;
        io.pair(48, t446);
        const P t447 = t444 - t445;
        io.pair(23, t447);
    }
};

}  // namespace zulg
