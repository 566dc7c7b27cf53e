// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 44.
// Complex DFT of 44 points, prime-factor, order 11, 4; two lines of a stage to a register.
// 110 sums, 90 differences, 100 products of registers, which do the 1288 steps of the graph, those with
// `scale` included; 60 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<44> {
    static constexpr int steps = 1288;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.5877852522924731,  // c[1]: sin 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 6/5
        0.30901699437494745,  // c[3]: cos 2 pi 6/5
        0.18992416871531467,  // c[4]: -P[2] of 11
        0.6355539395974166,  // c[5]: -Q[2] of 11
        0.6617220446385197,  // c[6]: -P[3] of 11
        0.046086176229070706,  // c[7]: Q[3] of 11
        0.5450828424811972,  // c[8]: -P[1] of 11
        0.3780009190896476,  // c[9]: Q[1] of 11
        0.3649365652299704,  // c[10]: -P[4] of 11
        0.5539145271232301,  // c[11]: Q[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x16_5 = io.pairs(16, 5);
        const Q x12_1 = io.pairs(12, 1);
        // real block of 5, multiplier 2
        const Q t0 = x16_5 + x12_1;
        const Q t1 = x16_5 - x12_1;
        const Q x36_25 = io.pairs(36, 25);
        const Q x20_9 = io.pairs(20, 9);
        const Q t2 = x36_25 + x20_9;
        const Q t3 = x36_25 - x20_9;
        const Q t4 = t0 + t2;
        const Q x4_37 = io.pairs(4, 37);
        const Q t5 = t4 + x4_37;
        const Q t6 = c[0] * t0;
        const Q t7 = x4_37 - t6;
        const Q t8 = c[1] * t1;
        const Q t9 = c[2] * t3;
        const Q t10 = t8 + t9;
        const Q t11 = c[3] * t0;
        const Q t12 = c[0] * t2;
        const Q t13 = t11 - t12;
        const Q t14 = c[2] * t1;
        const Q t15 = c[1] * t3;
        const Q t16 = t14 - t15;
        const Q x8_41 = io.pairs(8, 41);
        const Q x24_13 = io.pairs(24, 13);
        // real block of 5, multiplier 2
        const Q t17 = x8_41 + x24_13;
        const Q t18 = x8_41 - x24_13;
        const Q x28_17 = io.pairs(28, 17);
        const Q x32_21 = io.pairs(32, 21);
        const Q t19 = x28_17 + x32_21;
        const Q t20 = x28_17 - x32_21;
        const Q t21 = t19 + t17;
        const Q x40_29 = io.pairs(40, 29);
        const Q t22 = t21 + x40_29;
        const Q t23 = c[0] * t19;
        const Q t24 = x40_29 - t23;
        const Q t25 = c[1] * t20;
        const Q t26 = c[2] * t18;
        const Q t27 = t25 + t26;
        const Q t28 = c[3] * t19;
        const Q t29 = c[0] * t17;
        const Q t30 = t28 - t29;
        const Q t31 = c[2] * t20;
        const Q t32 = c[1] * t18;
        const Q t33 = t31 - t32;
        // real block of 5, multiplier 2
        const Q t34 = c[3] * t2;
        const Q t35 = t7 + t34;
        // real block of 5, multiplier 2
        const Q t36 = c[3] * t17;
        const Q t37 = t24 + t36;
        // complex block of 2
        const Q t38 = t35 + t37;
        const Q t39 = t35 - t37;
        const Q t40 = t10 + t27;
        const Q t41 = t27 - t10;
        // complex block of 11, multiplier 4
        const Q t42 = c[4] * t38;
        const Q t43 = c[5] * t40;
        const Q t44 = t42 + t43;
        const Q t45 = shuffled<1, 0, 3, 2>(t41);
        const Q t46 = Q(-c[6], c[6], -c[6], c[6]) * t45;
        const Q t47 = shuffled<1, 0, 3, 2>(t39);
        const Q t48 = Q(c[7], -c[7], c[7], -c[7]) * t47;
        const Q t49 = t46 + t48;
        // real block of 5, multiplier 2
        const Q t50 = t13 + x4_37;
        // real block of 5, multiplier 2
        const Q t51 = t30 + x40_29;
        // complex block of 2
        const Q t52 = t50 + t51;
        const Q t53 = t50 - t51;
        const Q t54 = t16 + t33;
        const Q t55 = t16 - t33;
        const Q t56 = shuffled<1, 0, 3, 2>(t55);
        // complex block of 11, multiplier 4
        const Q t57 = Q(-c[8], c[8], -c[8], c[8]) * t56;
        const Q t58 = shuffled<1, 0, 3, 2>(t53);
        const Q t59 = Q(c[9], -c[9], c[9], -c[9]) * t58;
        const Q t60 = t57 + t59;
        const Q t61 = c[10] * t52;
        const Q t62 = c[11] * t54;
        const Q t63 = t61 + t62;
        // real block of 2
        const Q t64 = t5 + t22;
        const Q x0_33 = io.pairs(0, 33);
        // complex block of 11, multiplier 4
        const Q t65 = c[12] * t64;
        const Q t66 = x0_33 - t65;
        // real block of 2
        const Q t67 = t5 - t22;
        const Q x30_19 = io.pairs(30, 19);
        const Q x2_35 = io.pairs(2, 35);
        // real block of 5, multiplier 2
        const Q t68 = x30_19 + x2_35;
        const Q t69 = x30_19 - x2_35;
        const Q x6_39 = io.pairs(6, 39);
        const Q x10_43 = io.pairs(10, 43);
        const Q t70 = x6_39 + x10_43;
        const Q t71 = x6_39 - x10_43;
        const Q t72 = t70 + t68;
        const Q x18_7 = io.pairs(18, 7);
        const Q t73 = t72 + x18_7;
        const Q t74 = c[0] * t70;
        const Q t75 = x18_7 - t74;
        const Q t76 = c[1] * t71;
        const Q t77 = c[2] * t69;
        const Q t78 = t76 + t77;
        const Q t79 = c[3] * t70;
        const Q t80 = c[0] * t68;
        const Q t81 = t79 - t80;
        const Q t82 = c[2] * t71;
        const Q t83 = c[1] * t69;
        const Q t84 = t82 - t83;
        const Q x14_3 = io.pairs(14, 3);
        const Q x42_31 = io.pairs(42, 31);
        // real block of 5, multiplier 2
        const Q t85 = x14_3 + x42_31;
        const Q t86 = x14_3 - x42_31;
        const Q x38_27 = io.pairs(38, 27);
        const Q x34_23 = io.pairs(34, 23);
        const Q t87 = x38_27 + x34_23;
        const Q t88 = x38_27 - x34_23;
        const Q t89 = t87 + t85;
        const Q x26_15 = io.pairs(26, 15);
        const Q t90 = t89 + x26_15;
        const Q t91 = c[0] * t87;
        const Q t92 = x26_15 - t91;
        const Q t93 = c[1] * t88;
        const Q t94 = c[2] * t86;
        const Q t95 = t93 + t94;
        const Q t96 = c[3] * t87;
        const Q t97 = c[0] * t85;
        const Q t98 = t96 - t97;
        const Q t99 = c[2] * t88;
        const Q t100 = c[1] * t86;
        const Q t101 = t99 - t100;
        const Q t102 = c[3] * t85;
        const Q t103 = t92 + t102;
        // real block of 5, multiplier 2
        const Q t104 = c[3] * t68;
        const Q t105 = t75 + t104;
        // complex block of 2
        const Q t106 = t103 + t105;
        const Q t107 = t103 - t105;
        const Q t108 = t95 + t78;
        const Q t109 = t78 - t95;
        // complex block of 11, multiplier 4
        const Q t110 = c[4] * t106;
        const Q t111 = c[5] * t108;
        const Q t112 = t110 + t111;
        const Q t113 = shuffled<1, 0, 3, 2>(t109);
        const Q t114 = Q(-c[6], c[6], -c[6], c[6]) * t113;
        const Q t115 = shuffled<1, 0, 3, 2>(t107);
        const Q t116 = Q(c[7], -c[7], c[7], -c[7]) * t115;
        const Q t117 = t114 + t116;
        // real block of 5, multiplier 2
        const Q t118 = t98 + x26_15;
        // real block of 5, multiplier 2
        const Q t119 = t81 + x18_7;
        // complex block of 2
        const Q t120 = t118 + t119;
        const Q t121 = t118 - t119;
        const Q t122 = t101 + t84;
        const Q t123 = t101 - t84;
        const Q t124 = shuffled<1, 0, 3, 2>(t123);
        // complex block of 11, multiplier 4
        const Q t125 = Q(-c[8], c[8], -c[8], c[8]) * t124;
        const Q t126 = shuffled<1, 0, 3, 2>(t121);
        const Q t127 = Q(c[9], -c[9], c[9], -c[9]) * t126;
        const Q t128 = t125 + t127;
        const Q t129 = c[10] * t120;
        const Q t130 = c[11] * t122;
        const Q t131 = t129 + t130;
        // real block of 2
        const Q t132 = t90 + t73;
        const Q x22_11 = io.pairs(22, 11);
        // complex block of 11, multiplier 4
        const Q t133 = c[12] * t132;
        const Q t134 = x22_11 - t133;
        // real block of 2
        const Q t135 = t90 - t73;
        // complex block of 11, multiplier 4
        const Q t136 = x22_11 + t132;
        const Q t137 = c[9] * t124;
        const Q t138 = c[8] * t126;
        const Q t139 = t137 + t138;
        const Q t140 = c[11] * t120;
        const Q t141 = c[10] * t122;
        const Q t142 = t140 - t141;
        const Q t143 = flipped<0, 1, 0, 1>(t139);
        // complex block of 2
        const Q t144 = t142 + t143;
        const Q t145 = t142 - t143;
        // complex block of 11, multiplier 4
        const Q t146 = c[4] * t108;
        const Q t147 = c[5] * t106;
        const Q t148 = t146 - t147;
        const Q t149 = c[7] * t113;
        const Q t150 = c[6] * t115;
        const Q t151 = t149 + t150;
        const Q t152 = flipped<0, 1, 0, 1>(t151);
        // complex block of 2
        const Q t153 = t148 + t152;
        const Q t154 = t148 - t152;
        // spectrum block of 5, multiplier 2
        const Q t155 = c[2] * t153;
        const Q t156 = c[1] * t144;
        const Q t157 = t155 + t156;
        const Q t158 = c[1] * t153;
        const Q t159 = c[2] * t144;
        const Q t160 = t158 - t159;
        // spectrum block of 5, multiplier 2
        const Q t161 = c[2] * t154;
        const Q t162 = c[1] * t145;
        const Q t163 = t161 + t162;
        const Q t164 = c[1] * t154;
        const Q t165 = c[2] * t145;
        const Q t166 = t164 - t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t135);
        // complex block of 11, multiplier 4
        const Q t168 = Q(c[13], -c[13], c[13], -c[13]) * t167;
        // spectrum block of 2
        const Q t169 = t134 + t168;
        // complex block of 2
        const Q t170 = t117 - t112;
        // complex block of 2
        const Q t171 = t128 - t131;
        // spectrum block of 5, multiplier 2
        const Q t172 = t170 + t171;
        const Q t173 = t172 + t169;
        const Q t174 = c[3] * t170;
        const Q t175 = c[0] * t171;
        const Q t176 = t174 - t175;
        const Q t177 = t176 + t169;
        const Q t178 = c[0] * t170;
        const Q t179 = t169 - t178;
        const Q t180 = c[3] * t171;
        const Q t181 = t179 + t180;
        // spectrum block of 2
        const Q t182 = t134 - t168;
        // complex block of 2
        const Q t183 = t112 + t117;
        // complex block of 2
        const Q t184 = t131 + t128;
        // spectrum block of 5, multiplier 2
        const Q t185 = t183 + t184;
        const Q t186 = t182 - t185;
        const Q t187 = c[3] * t183;
        const Q t188 = t182 - t187;
        const Q t189 = c[0] * t184;
        const Q t190 = t188 + t189;
        const Q t191 = c[0] * t183;
        const Q t192 = c[3] * t184;
        const Q t193 = t191 - t192;
        const Q t194 = t193 + t182;
        // complex block of 11, multiplier 4
        const Q t195 = x0_33 + t64;
        const Q t196 = c[9] * t56;
        const Q t197 = c[8] * t58;
        const Q t198 = t196 + t197;
        const Q t199 = c[11] * t52;
        const Q t200 = c[10] * t54;
        const Q t201 = t199 - t200;
        const Q t202 = flipped<0, 1, 0, 1>(t198);
        // complex block of 2
        const Q t203 = t201 + t202;
        const Q t204 = t201 - t202;
        // complex block of 11, multiplier 4
        const Q t205 = c[4] * t40;
        const Q t206 = c[5] * t38;
        const Q t207 = t205 - t206;
        const Q t208 = c[7] * t45;
        const Q t209 = c[6] * t47;
        const Q t210 = t208 + t209;
        const Q t211 = flipped<0, 1, 0, 1>(t210);
        // complex block of 2
        const Q t212 = t207 + t211;
        const Q t213 = t207 - t211;
        // spectrum block of 5, multiplier 2
        const Q t214 = c[2] * t212;
        const Q t215 = c[1] * t203;
        const Q t216 = t214 + t215;
        const Q t217 = c[1] * t212;
        const Q t218 = c[2] * t203;
        const Q t219 = t217 - t218;
        // spectrum block of 5, multiplier 2
        const Q t220 = c[2] * t213;
        const Q t221 = c[1] * t204;
        const Q t222 = t220 + t221;
        const Q t223 = c[1] * t213;
        const Q t224 = c[2] * t204;
        const Q t225 = t223 - t224;
        const Q t226 = shuffled<1, 0, 3, 2>(t67);
        // complex block of 11, multiplier 4
        const Q t227 = Q(c[13], -c[13], c[13], -c[13]) * t226;
        // spectrum block of 2
        const Q t228 = t66 + t227;
        // complex block of 2
        const Q t229 = t49 - t44;
        // complex block of 2
        const Q t230 = t60 - t63;
        // spectrum block of 5, multiplier 2
        const Q t231 = t229 + t230;
        const Q t232 = t231 + t228;
        const Q t233 = c[3] * t229;
        const Q t234 = c[0] * t230;
        const Q t235 = t233 - t234;
        const Q t236 = t235 + t228;
        const Q t237 = c[0] * t229;
        const Q t238 = t228 - t237;
        const Q t239 = c[3] * t230;
        const Q t240 = t238 + t239;
        // spectrum block of 2
        const Q t241 = t66 - t227;
        // complex block of 2
        const Q t242 = t44 + t49;
        // complex block of 2
        const Q t243 = t63 + t60;
        // spectrum block of 5, multiplier 2
        const Q t244 = t242 + t243;
        const Q t245 = t241 - t244;
        const Q t246 = c[3] * t242;
        const Q t247 = t241 - t246;
        const Q t248 = c[0] * t243;
        const Q t249 = t247 + t248;
        const Q t250 = c[0] * t242;
        const Q t251 = c[3] * t243;
        const Q t252 = t250 - t251;
        const Q t253 = t252 + t241;
        // spectrum block of 5, multiplier 2
        const Q t254 = t177 - t157;
        // spectrum block of 5, multiplier 2
        const Q t255 = t194 - t166;
        // spectrum block of 5, multiplier 2
        const Q t256 = t236 - t216;
        // spectrum block of 5, multiplier 2
        const Q t257 = t253 - t225;
        const Q t258 = shuffled<0, 1, 4, 5>(t256, t257);
        const Q t259 = shuffled<0, 1, 4, 5>(t254, t255);
        // complex block of 2
        const Q t260 = t258 + t259;
        const Q t261 = t258 - t259;
        const Q t262 = shuffled<2, 3, 6, 7>(t254, t255);
        const Q t263 = shuffled<2, 3, 6, 7>(t256, t257);
        // complex block of 2
        const Q t264 = t262 + t263;
        const Q t265 = t262 - t263;
        // complex block of 2
        const Q t266 = t260 + t264;
        const Q t267 = t260 - t264;
        const Q t268 = shuffled<1, 0, 3, 2>(t265);
        const Q t269 = flipped<1, 0, 1, 0>(t268);
        // complex block of 2
        const Q t270 = t261 + t269;
        const Q t271 = shuffled<0, 1, 6, 7>(t270, t266);
        io.pairs(31, 32, t271);
        const Q t272 = shuffled<0, 1, 6, 7>(t267, t270);
        io.pairs(42, 43, t272);
        const Q t273 = t261 - t269;
        const Q t274 = shuffled<0, 1, 6, 7>(t273, t267);
        io.pairs(9, 10, t274);
        const Q t275 = shuffled<0, 1, 6, 7>(t266, t273);
        io.pairs(20, 21, t275);
        // spectrum block of 5, multiplier 2
        const Q t276 = t177 + t157;
        // spectrum block of 5, multiplier 2
        const Q t277 = t190 - t163;
        // spectrum block of 5, multiplier 2
        const Q t278 = t236 + t216;
        // spectrum block of 5, multiplier 2
        const Q t279 = t249 - t222;
        const Q t280 = shuffled<0, 1, 4, 5>(t279, t278);
        const Q t281 = shuffled<0, 1, 4, 5>(t277, t276);
        // complex block of 2
        const Q t282 = t280 + t281;
        const Q t283 = t280 - t281;
        const Q t284 = shuffled<2, 3, 6, 7>(t277, t276);
        const Q t285 = shuffled<2, 3, 6, 7>(t279, t278);
        // complex block of 2
        const Q t286 = t284 + t285;
        const Q t287 = t284 - t285;
        // complex block of 2
        const Q t288 = t282 + t286;
        const Q t289 = t282 - t286;
        const Q t290 = shuffled<1, 0, 3, 2>(t287);
        const Q t291 = flipped<1, 0, 1, 0>(t290);
        // complex block of 2
        const Q t292 = t283 + t291;
        const Q t293 = shuffled<0, 1, 6, 7>(t289, t292);
        io.pairs(2, 3, t293);
        const Q t294 = shuffled<0, 1, 6, 7>(t292, t288);
        io.pairs(35, 36, t294);
        const Q t295 = t283 - t291;
        const Q t296 = shuffled<0, 1, 6, 7>(t295, t289);
        io.pairs(13, 14, t296);
        const Q t297 = shuffled<0, 1, 6, 7>(t288, t295);
        io.pairs(24, 25, t297);
        // spectrum block of 5, multiplier 2
        const Q t298 = t181 - t160;
        // spectrum block of 5, multiplier 2
        const Q t299 = t240 - t219;
        const Q t300 = shuffled<0, 1, 4, 5>(t195, t299);
        const Q t301 = shuffled<0, 1, 4, 5>(t136, t298);
        // complex block of 2
        const Q t302 = t300 + t301;
        const Q t303 = t300 - t301;
        const Q t304 = shuffled<2, 3, 6, 7>(t136, t298);
        const Q t305 = shuffled<2, 3, 6, 7>(t195, t299);
        // complex block of 2
        const Q t306 = t304 + t305;
        const Q t307 = t304 - t305;
        // complex block of 2
        const Q t308 = t302 + t306;
        const Q t309 = t302 - t306;
        const Q t310 = shuffled<1, 0, 3, 2>(t307);
        const Q t311 = flipped<1, 0, 1, 0>(t310);
        // complex block of 2
        const Q t312 = t303 + t311;
        const Q t313 = shuffled<0, 1, 6, 7>(t312, t308);
        io.pairs(11, 12, t313);
        const Q t314 = shuffled<0, 1, 6, 7>(t309, t312);
        io.pairs(22, 23, t314);
        const Q t315 = t303 - t311;
        const Q t316 = shuffled<0, 1, 6, 7>(t308, t315);
        io.pairs(0, 1, t316);
        const Q t317 = shuffled<0, 1, 6, 7>(t315, t309);
        io.pairs(33, 34, t317);
        // spectrum block of 5, multiplier 2
        const Q t318 = t181 + t160;
        // spectrum block of 5, multiplier 2
        const Q t319 = t240 + t219;
        const Q t320 = shuffled<0, 1, 4, 5>(t232, t319);
        const Q t321 = shuffled<0, 1, 4, 5>(t173, t318);
        // complex block of 2
        const Q t322 = t320 + t321;
        const Q t323 = t320 - t321;
        const Q t324 = shuffled<2, 3, 6, 7>(t173, t318);
        const Q t325 = shuffled<2, 3, 6, 7>(t232, t319);
        // complex block of 2
        const Q t326 = t324 + t325;
        const Q t327 = t324 - t325;
        // complex block of 2
        const Q t328 = t322 + t326;
        const Q t329 = t322 - t326;
        const Q t330 = shuffled<1, 0, 3, 2>(t327);
        const Q t331 = flipped<1, 0, 1, 0>(t330);
        // complex block of 2
        const Q t332 = t323 + t331;
        const Q t333 = shuffled<0, 1, 6, 7>(t332, t328);
        io.pairs(15, 16, t333);
        const Q t334 = shuffled<0, 1, 6, 7>(t329, t332);
        io.pairs(26, 27, t334);
        const Q t335 = t323 - t331;
        const Q t336 = shuffled<0, 1, 6, 7>(t328, t335);
        io.pairs(4, 5, t336);
        const Q t337 = shuffled<0, 1, 6, 7>(t335, t329);
        io.pairs(37, 38, t337);
        // spectrum block of 5, multiplier 2
        const Q t338 = t190 + t163;
        // spectrum block of 5, multiplier 2
        const Q t339 = t249 + t222;
        // complex block of 2
        const Q t340 = t338 + t339;
        const Q t341 = shuffled<0, 1, 6, 7>(t339, t338);
        const Q t342 = shuffled<0, 1, 6, 7>(t338, t339);
        const Q t343 = t341 - t342;
        const Q t344 = shuffled<0, 1, 4, 5>(t340, t343);
        const Q t345 = shuffled<1, 0, 3, 2>(t343);
        const Q t346 = shuffled<2, 3, 6, 7>(t340, t345);
        const Q t347 = flipped<0, 0, 1, 0>(t346);
        // complex block of 2
        const Q t348 = t344 + t347;
        io.pairs(8, 19, t348);
        const Q t349 = t344 - t347;
        io.pairs(30, 41, t349);
        // spectrum block of 5, multiplier 2
        const Q t350 = t194 + t166;
        // spectrum block of 5, multiplier 2
        const Q t351 = t253 + t225;
        const Q t352 = shuffled<0, 1, 4, 5>(t351, t245);
        const Q t353 = shuffled<0, 1, 4, 5>(t350, t186);
        // complex block of 2
        const Q t354 = t352 + t353;
        const Q t355 = t352 - t353;
        const Q t356 = shuffled<2, 3, 6, 7>(t350, t186);
        const Q t357 = shuffled<2, 3, 6, 7>(t351, t245);
        // complex block of 2
        const Q t358 = t356 + t357;
        const Q t359 = t356 - t357;
        // complex block of 2
        const Q t360 = t354 + t358;
        const Q t361 = t354 - t358;
        const Q t362 = shuffled<1, 0, 3, 2>(t359);
        const Q t363 = flipped<1, 0, 1, 0>(t362);
        // complex block of 2
        const Q t364 = t355 + t363;
        const Q t365 = shuffled<0, 1, 6, 7>(t361, t364);
        io.pairs(6, 7, t365);
        const Q t366 = shuffled<0, 1, 6, 7>(t364, t360);
        io.pairs(39, 40, t366);
        const Q t367 = t355 - t363;
        const Q t368 = shuffled<0, 1, 6, 7>(t367, t361);
        io.pairs(17, 18, t368);
        const Q t369 = shuffled<0, 1, 6, 7>(t360, t367);
        io.pairs(28, 29, t369);
    }
};

}  // namespace zulg
