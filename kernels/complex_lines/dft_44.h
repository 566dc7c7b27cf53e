// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 44.
// Complex DFT of 44 points, prime-factor, order 11, 4; two lines of a stage to a register.
// 110 sums, 90 differences, 100 products of registers, which do the 1288 steps of the graph, those with
// `scale` included; 38 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<44> {
    static constexpr int steps = 1288;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5450828424811972,  // c[4]: -P[1] of 11
        0.3780009190896476,  // c[5]: Q[1] of 11
        0.18992416871531467,  // c[6]: -P[2] of 11
        0.6355539395974166,  // c[7]: -Q[2] of 11
        0.6617220446385197,  // c[8]: -P[3] of 11
        0.046086176229070706,  // c[9]: Q[3] of 11
        0.3649365652299704,  // c[10]: -P[4] of 11
        0.5539145271232301,  // c[11]: Q[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x16_27 = io.pairs(16, 27);
        const Q x12_23 = io.pairs(12, 23);
        // real block of 5, multiplier 2
        const Q t0 = x16_27 + x12_23;
        const Q t1 = x16_27 - x12_23;
        const Q x36_3 = io.pairs(36, 3);
        const Q x20_31 = io.pairs(20, 31);
        const Q t2 = x36_3 + x20_31;
        const Q t3 = x36_3 - x20_31;
        const Q t4 = t0 + t2;
        const Q x4_15 = io.pairs(4, 15);
        const Q t5 = t4 + x4_15;
        const Q t6 = c[0] * t0;
        const Q t7 = x4_15 - t6;
        const Q t8 = c[1] * t2;
        const Q t9 = t7 + t8;
        const Q t10 = c[2] * t1;
        const Q t11 = c[3] * t3;
        const Q t12 = t10 + t11;
        const Q t13 = c[1] * t0;
        const Q t14 = c[0] * t2;
        const Q t15 = t13 - t14;
        const Q t16 = t15 + x4_15;
        const Q t17 = c[3] * t1;
        const Q t18 = c[2] * t3;
        const Q t19 = t17 - t18;
        const Q x28_39 = io.pairs(28, 39);
        const Q x32_43 = io.pairs(32, 43);
        // real block of 5, multiplier 2
        const Q t20 = x28_39 + x32_43;
        const Q t21 = x28_39 - x32_43;
        const Q x8_19 = io.pairs(8, 19);
        const Q x24_35 = io.pairs(24, 35);
        const Q t22 = x8_19 + x24_35;
        const Q t23 = x8_19 - x24_35;
        const Q t24 = t20 + t22;
        const Q x40_7 = io.pairs(40, 7);
        const Q t25 = t24 + x40_7;
        const Q t26 = c[0] * t20;
        const Q t27 = x40_7 - t26;
        const Q t28 = c[1] * t22;
        const Q t29 = t27 + t28;
        const Q t30 = c[2] * t21;
        const Q t31 = c[3] * t23;
        const Q t32 = t30 + t31;
        const Q t33 = c[1] * t20;
        const Q t34 = c[0] * t22;
        const Q t35 = t33 - t34;
        const Q t36 = t35 + x40_7;
        const Q t37 = c[3] * t21;
        const Q t38 = c[2] * t23;
        const Q t39 = t37 - t38;
        // real block of 2
        const Q t40 = t5 + t25;
        const Q t41 = t5 - t25;
        // complex block of 2
        const Q t42 = t9 + t29;
        const Q t43 = t12 + t32;
        const Q t44 = t9 - t29;
        const Q t45 = t32 - t12;
        // complex block of 2
        const Q t46 = t16 + t36;
        const Q t47 = t19 + t39;
        const Q t48 = t16 - t36;
        const Q t49 = t19 - t39;
        const Q x0_11 = io.pairs(0, 11);
        // complex block of 11, multiplier 4
        const Q t50 = x0_11 + t40;
        const Q t51 = c[12] * t40;
        const Q t52 = x0_11 - t51;
        const Q t53 = shuffled<1, 0, 3, 2>(t49);
        const Q t54 = Q(-c[4], c[4], -c[4], c[4]) * t53;
        const Q t55 = shuffled<1, 0, 3, 2>(t48);
        const Q t56 = Q(c[5], -c[5], c[5], -c[5]) * t55;
        const Q t57 = t54 + t56;
        const Q t58 = c[5] * t53;
        const Q t59 = c[4] * t55;
        const Q t60 = t58 + t59;
        const Q t61 = c[6] * t42;
        const Q t62 = c[7] * t43;
        const Q t63 = t61 + t62;
        const Q t64 = c[6] * t43;
        const Q t65 = c[7] * t42;
        const Q t66 = t64 - t65;
        const Q t67 = shuffled<1, 0, 3, 2>(t45);
        const Q t68 = Q(-c[8], c[8], -c[8], c[8]) * t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t44);
        const Q t70 = Q(c[9], -c[9], c[9], -c[9]) * t69;
        const Q t71 = t68 + t70;
        const Q t72 = c[9] * t67;
        const Q t73 = c[8] * t69;
        const Q t74 = t72 + t73;
        const Q t75 = c[10] * t46;
        const Q t76 = c[11] * t47;
        const Q t77 = t75 + t76;
        const Q t78 = c[11] * t46;
        const Q t79 = c[10] * t47;
        const Q t80 = t78 - t79;
        const Q t81 = shuffled<1, 0, 3, 2>(t41);
        const Q t82 = Q(c[13], -c[13], c[13], -c[13]) * t81;
        // spectrum block of 2
        const Q t83 = t52 + t82;
        const Q t84 = t52 - t82;
        const Q t85 = flipped<0, 1, 0, 1>(t74);
        // complex block of 2
        const Q t86 = t66 + t85;
        const Q t87 = t71 - t63;
        const Q t88 = t66 - t85;
        const Q t89 = t63 + t71;
        const Q t90 = flipped<0, 1, 0, 1>(t60);
        // complex block of 2
        const Q t91 = t80 + t90;
        const Q t92 = t57 - t77;
        const Q t93 = t80 - t90;
        const Q t94 = t77 + t57;
        // spectrum block of 5, multiplier 2
        const Q t95 = t87 + t92;
        const Q t96 = t95 + t83;
        const Q t97 = c[1] * t87;
        const Q t98 = c[0] * t92;
        const Q t99 = t97 - t98;
        const Q t100 = t99 + t83;
        const Q t101 = c[3] * t86;
        const Q t102 = c[2] * t91;
        const Q t103 = t101 + t102;
        const Q t104 = t100 - t103;
        const Q t105 = t100 + t103;
        const Q t106 = c[0] * t87;
        const Q t107 = t83 - t106;
        const Q t108 = c[1] * t92;
        const Q t109 = t107 + t108;
        const Q t110 = c[2] * t86;
        const Q t111 = c[3] * t91;
        const Q t112 = t110 - t111;
        const Q t113 = t109 - t112;
        const Q t114 = t109 + t112;
        // spectrum block of 5, multiplier 2
        const Q t115 = t89 + t94;
        const Q t116 = t84 - t115;
        const Q t117 = c[1] * t89;
        const Q t118 = t84 - t117;
        const Q t119 = c[0] * t94;
        const Q t120 = t118 + t119;
        const Q t121 = c[3] * t88;
        const Q t122 = c[2] * t93;
        const Q t123 = t121 + t122;
        const Q t124 = t120 - t123;
        const Q t125 = t120 + t123;
        const Q t126 = c[0] * t89;
        const Q t127 = c[1] * t94;
        const Q t128 = t126 - t127;
        const Q t129 = t128 + t84;
        const Q t130 = c[2] * t88;
        const Q t131 = c[3] * t93;
        const Q t132 = t130 - t131;
        const Q t133 = t129 - t132;
        const Q t134 = t129 + t132;
        const Q x38_5 = io.pairs(38, 5);
        const Q x34_1 = io.pairs(34, 1);
        // real block of 5, multiplier 2
        const Q t135 = x38_5 + x34_1;
        const Q t136 = x38_5 - x34_1;
        const Q x14_25 = io.pairs(14, 25);
        const Q x42_9 = io.pairs(42, 9);
        const Q t137 = x14_25 + x42_9;
        const Q t138 = x14_25 - x42_9;
        const Q t139 = t135 + t137;
        const Q x26_37 = io.pairs(26, 37);
        const Q t140 = t139 + x26_37;
        const Q t141 = c[0] * t135;
        const Q t142 = x26_37 - t141;
        const Q t143 = c[1] * t137;
        const Q t144 = t142 + t143;
        const Q t145 = c[2] * t136;
        const Q t146 = c[3] * t138;
        const Q t147 = t145 + t146;
        const Q t148 = c[1] * t135;
        const Q t149 = c[0] * t137;
        const Q t150 = t148 - t149;
        const Q t151 = t150 + x26_37;
        const Q t152 = c[3] * t136;
        const Q t153 = c[2] * t138;
        const Q t154 = t152 - t153;
        const Q x6_17 = io.pairs(6, 17);
        const Q x10_21 = io.pairs(10, 21);
        // real block of 5, multiplier 2
        const Q t155 = x6_17 + x10_21;
        const Q t156 = x6_17 - x10_21;
        const Q x30_41 = io.pairs(30, 41);
        const Q x2_13 = io.pairs(2, 13);
        const Q t157 = x30_41 + x2_13;
        const Q t158 = x30_41 - x2_13;
        const Q t159 = t155 + t157;
        const Q x18_29 = io.pairs(18, 29);
        const Q t160 = t159 + x18_29;
        const Q t161 = c[0] * t155;
        const Q t162 = x18_29 - t161;
        const Q t163 = c[1] * t157;
        const Q t164 = t162 + t163;
        const Q t165 = c[2] * t156;
        const Q t166 = c[3] * t158;
        const Q t167 = t165 + t166;
        const Q t168 = c[1] * t155;
        const Q t169 = c[0] * t157;
        const Q t170 = t168 - t169;
        const Q t171 = t170 + x18_29;
        const Q t172 = c[3] * t156;
        const Q t173 = c[2] * t158;
        const Q t174 = t172 - t173;
        // real block of 2
        const Q t175 = t140 + t160;
        const Q t176 = t140 - t160;
        // complex block of 2
        const Q t177 = t144 + t164;
        const Q t178 = t147 + t167;
        const Q t179 = t144 - t164;
        const Q t180 = t167 - t147;
        // complex block of 2
        const Q t181 = t151 + t171;
        const Q t182 = t154 + t174;
        const Q t183 = t151 - t171;
        const Q t184 = t154 - t174;
        const Q x22_33 = io.pairs(22, 33);
        // complex block of 11, multiplier 4
        const Q t185 = x22_33 + t175;
        const Q t186 = c[12] * t175;
        const Q t187 = x22_33 - t186;
        const Q t188 = shuffled<1, 0, 3, 2>(t184);
        const Q t189 = Q(-c[4], c[4], -c[4], c[4]) * t188;
        const Q t190 = shuffled<1, 0, 3, 2>(t183);
        const Q t191 = Q(c[5], -c[5], c[5], -c[5]) * t190;
        const Q t192 = t189 + t191;
        const Q t193 = c[5] * t188;
        const Q t194 = c[4] * t190;
        const Q t195 = t193 + t194;
        const Q t196 = c[6] * t177;
        const Q t197 = c[7] * t178;
        const Q t198 = t196 + t197;
        const Q t199 = c[6] * t178;
        const Q t200 = c[7] * t177;
        const Q t201 = t199 - t200;
        const Q t202 = shuffled<1, 0, 3, 2>(t180);
        const Q t203 = Q(-c[8], c[8], -c[8], c[8]) * t202;
        const Q t204 = shuffled<1, 0, 3, 2>(t179);
        const Q t205 = Q(c[9], -c[9], c[9], -c[9]) * t204;
        const Q t206 = t203 + t205;
        const Q t207 = c[9] * t202;
        const Q t208 = c[8] * t204;
        const Q t209 = t207 + t208;
        const Q t210 = c[10] * t181;
        const Q t211 = c[11] * t182;
        const Q t212 = t210 + t211;
        const Q t213 = c[11] * t181;
        const Q t214 = c[10] * t182;
        const Q t215 = t213 - t214;
        const Q t216 = shuffled<1, 0, 3, 2>(t176);
        const Q t217 = Q(c[13], -c[13], c[13], -c[13]) * t216;
        // spectrum block of 2
        const Q t218 = t187 + t217;
        const Q t219 = t187 - t217;
        const Q t220 = flipped<0, 1, 0, 1>(t209);
        // complex block of 2
        const Q t221 = t201 + t220;
        const Q t222 = t206 - t198;
        const Q t223 = t201 - t220;
        const Q t224 = t198 + t206;
        const Q t225 = flipped<0, 1, 0, 1>(t195);
        // complex block of 2
        const Q t226 = t215 + t225;
        const Q t227 = t192 - t212;
        const Q t228 = t215 - t225;
        const Q t229 = t212 + t192;
        // spectrum block of 5, multiplier 2
        const Q t230 = t222 + t227;
        const Q t231 = t230 + t218;
        const Q t232 = c[1] * t222;
        const Q t233 = c[0] * t227;
        const Q t234 = t232 - t233;
        const Q t235 = t234 + t218;
        const Q t236 = c[3] * t221;
        const Q t237 = c[2] * t226;
        const Q t238 = t236 + t237;
        const Q t239 = t235 - t238;
        const Q t240 = t235 + t238;
        const Q t241 = c[0] * t222;
        const Q t242 = t218 - t241;
        const Q t243 = c[1] * t227;
        const Q t244 = t242 + t243;
        const Q t245 = c[2] * t221;
        const Q t246 = c[3] * t226;
        const Q t247 = t245 - t246;
        const Q t248 = t244 - t247;
        const Q t249 = t244 + t247;
        // spectrum block of 5, multiplier 2
        const Q t250 = t224 + t229;
        const Q t251 = t219 - t250;
        const Q t252 = c[1] * t224;
        const Q t253 = t219 - t252;
        const Q t254 = c[0] * t229;
        const Q t255 = t253 + t254;
        const Q t256 = c[3] * t223;
        const Q t257 = c[2] * t228;
        const Q t258 = t256 + t257;
        const Q t259 = t255 - t258;
        const Q t260 = t255 + t258;
        const Q t261 = c[0] * t224;
        const Q t262 = c[1] * t229;
        const Q t263 = t261 - t262;
        const Q t264 = t263 + t219;
        const Q t265 = c[2] * t223;
        const Q t266 = c[3] * t228;
        const Q t267 = t265 - t266;
        const Q t268 = t264 - t267;
        const Q t269 = t264 + t267;
        const Q t270 = shuffled<0, 1, 4, 5>(t50, t96);
        const Q t271 = shuffled<0, 1, 4, 5>(t185, t231);
        // complex block of 2
        const Q t272 = t270 + t271;
        const Q t273 = t270 - t271;
        const Q t274 = shuffled<2, 3, 6, 7>(t50, t96);
        const Q t275 = shuffled<2, 3, 6, 7>(t185, t231);
        // complex block of 2
        const Q t276 = t274 + t275;
        const Q t277 = t274 - t275;
        // complex block of 2
        const Q t278 = t272 + t276;
        io.pairs(0, 4, t278);
        const Q t279 = t272 - t276;
        io.pairs(22, 26, t279);
        const Q t280 = shuffled<1, 0, 3, 2>(t277);
        const Q t281 = flipped<1, 0, 1, 0>(t280);
        // complex block of 2
        const Q t282 = t273 + t281;
        io.pairs(11, 15, t282);
        const Q t283 = t273 - t281;
        io.pairs(33, 37, t283);
        const Q t284 = shuffled<0, 1, 4, 5>(t125, t113);
        const Q t285 = shuffled<0, 1, 4, 5>(t260, t248);
        // complex block of 2
        const Q t286 = t284 + t285;
        const Q t287 = t284 - t285;
        const Q t288 = shuffled<2, 3, 6, 7>(t125, t113);
        const Q t289 = shuffled<2, 3, 6, 7>(t260, t248);
        // complex block of 2
        const Q t290 = t288 + t289;
        const Q t291 = t288 - t289;
        // complex block of 2
        const Q t292 = t286 + t290;
        io.pairs(8, 12, t292);
        const Q t293 = t286 - t290;
        io.pairs(30, 34, t293);
        const Q t294 = shuffled<1, 0, 3, 2>(t291);
        const Q t295 = flipped<1, 0, 1, 0>(t294);
        // complex block of 2
        const Q t296 = t287 + t295;
        io.pairs(19, 23, t296);
        const Q t297 = t287 - t295;
        io.pairs(41, 1, t297);
        const Q t298 = shuffled<0, 1, 4, 5>(t114, t104);
        const Q t299 = shuffled<0, 1, 4, 5>(t249, t239);
        // complex block of 2
        const Q t300 = t298 + t299;
        const Q t301 = t298 - t299;
        const Q t302 = shuffled<2, 3, 6, 7>(t114, t104);
        const Q t303 = shuffled<2, 3, 6, 7>(t249, t239);
        // complex block of 2
        const Q t304 = t302 + t303;
        const Q t305 = t302 - t303;
        // complex block of 2
        const Q t306 = t300 + t304;
        io.pairs(16, 20, t306);
        const Q t307 = t300 - t304;
        io.pairs(38, 42, t307);
        const Q t308 = shuffled<1, 0, 3, 2>(t305);
        const Q t309 = flipped<1, 0, 1, 0>(t308);
        // complex block of 2
        const Q t310 = t301 + t309;
        io.pairs(27, 31, t310);
        const Q t311 = t301 - t309;
        io.pairs(5, 9, t311);
        const Q t312 = shuffled<0, 1, 4, 5>(t124, t134);
        const Q t313 = shuffled<0, 1, 4, 5>(t259, t269);
        // complex block of 2
        const Q t314 = t312 + t313;
        const Q t315 = t312 - t313;
        const Q t316 = shuffled<2, 3, 6, 7>(t124, t134);
        const Q t317 = shuffled<2, 3, 6, 7>(t259, t269);
        // complex block of 2
        const Q t318 = t316 + t317;
        const Q t319 = t316 - t317;
        // complex block of 2
        const Q t320 = t314 + t318;
        io.pairs(24, 28, t320);
        const Q t321 = t314 - t318;
        io.pairs(2, 6, t321);
        const Q t322 = shuffled<1, 0, 3, 2>(t319);
        const Q t323 = flipped<1, 0, 1, 0>(t322);
        // complex block of 2
        const Q t324 = t315 + t323;
        io.pairs(35, 39, t324);
        const Q t325 = t315 - t323;
        io.pairs(13, 17, t325);
        const Q t326 = shuffled<0, 1, 4, 5>(t133, t105);
        const Q t327 = shuffled<0, 1, 4, 5>(t268, t240);
        // complex block of 2
        const Q t328 = t326 + t327;
        const Q t329 = t326 - t327;
        const Q t330 = shuffled<2, 3, 6, 7>(t133, t105);
        const Q t331 = shuffled<2, 3, 6, 7>(t268, t240);
        // complex block of 2
        const Q t332 = t330 + t331;
        const Q t333 = t330 - t331;
        // complex block of 2
        const Q t334 = t328 + t332;
        io.pairs(32, 36, t334);
        const Q t335 = t328 - t332;
        io.pairs(10, 14, t335);
        const Q t336 = shuffled<1, 0, 3, 2>(t333);
        const Q t337 = flipped<1, 0, 1, 0>(t336);
        // complex block of 2
        const Q t338 = t329 + t337;
        io.pairs(43, 3, t338);
        const Q t339 = t329 - t337;
        io.pairs(21, 25, t339);
        // complex block of 2
        const Q t340 = t116 + t251;
        const Q t341 = t116 - t251;
        const Q t342 = shuffled<0, 1, 4, 5>(t340, t341);
        const Q t343 = shuffled<2, 3, 6, 7>(t340, t341);
        const Q t344 = shuffled<0, 1, 3, 2>(t343);
        const Q t345 = flipped<0, 0, 1, 0>(t344);
        // complex block of 2
        const Q t346 = t342 + t345;
        io.pairs(40, 7, t346);
        const Q t347 = t342 - t345;
        io.pairs(18, 29, t347);
    }
};

}  // namespace zulg
