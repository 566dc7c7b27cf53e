// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 60.
// Complex DFT of 60 points, prime-factor, order 3, 5, 4; two lines of a stage to a register.
// 114 sums, 102 differences, 68 products of registers, which do the 1256 steps of the graph, those with
// `scale` included; 60 shuffles, 20 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<60> {
    static constexpr int steps = 1256;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x20_35 = io.pairs(20, 35);
        const Q x40_55 = io.pairs(40, 55);
        // complex block of 3, multiplier 2
        const Q t0 = x20_35 + x40_55;
        const Q t1 = x20_35 - x40_55;
        const Q x0_15 = io.pairs(0, 15);
        const Q t2 = t0 + x0_15;
        const Q t3 = c[4] * t0;
        const Q t4 = x0_15 - t3;
        const Q t5 = Q(-c[5], c[5], -c[5], c[5]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x50_5 = io.pairs(50, 5);
        const Q x10_25 = io.pairs(10, 25);
        // complex block of 3, multiplier 2
        const Q t9 = x50_5 + x10_25;
        const Q t10 = x50_5 - x10_25;
        const Q x30_45 = io.pairs(30, 45);
        const Q t11 = t9 + x30_45;
        const Q t12 = c[4] * t9;
        const Q t13 = x30_45 - t12;
        const Q t14 = Q(-c[5], c[5], -c[5], c[5]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x32_47 = io.pairs(32, 47);
        const Q x52_7 = io.pairs(52, 7);
        // complex block of 3, multiplier 2
        const Q t18 = x32_47 + x52_7;
        const Q t19 = x32_47 - x52_7;
        const Q x12_27 = io.pairs(12, 27);
        const Q t20 = t18 + x12_27;
        const Q t21 = c[4] * t18;
        const Q t22 = x12_27 - t21;
        const Q t23 = Q(-c[5], c[5], -c[5], c[5]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        const Q x2_17 = io.pairs(2, 17);
        const Q x22_37 = io.pairs(22, 37);
        // complex block of 3, multiplier 2
        const Q t27 = x2_17 + x22_37;
        const Q t28 = x2_17 - x22_37;
        const Q x42_57 = io.pairs(42, 57);
        const Q t29 = t27 + x42_57;
        const Q t30 = c[4] * t27;
        const Q t31 = x42_57 - t30;
        const Q t32 = Q(-c[5], c[5], -c[5], c[5]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        const Q x44_59 = io.pairs(44, 59);
        const Q x4_19 = io.pairs(4, 19);
        // complex block of 3, multiplier 2
        const Q t36 = x44_59 + x4_19;
        const Q t37 = x44_59 - x4_19;
        const Q x24_39 = io.pairs(24, 39);
        const Q t38 = t36 + x24_39;
        const Q t39 = c[4] * t36;
        const Q t40 = x24_39 - t39;
        const Q t41 = Q(-c[5], c[5], -c[5], c[5]) * t37;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = t40 - t42;
        const Q x14_29 = io.pairs(14, 29);
        const Q x34_49 = io.pairs(34, 49);
        // complex block of 3, multiplier 2
        const Q t45 = x14_29 + x34_49;
        const Q t46 = x14_29 - x34_49;
        const Q x54_9 = io.pairs(54, 9);
        const Q t47 = t45 + x54_9;
        const Q t48 = c[4] * t45;
        const Q t49 = x54_9 - t48;
        const Q t50 = Q(-c[5], c[5], -c[5], c[5]) * t46;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = t49 + t51;
        const Q t53 = t49 - t51;
        const Q x56_11 = io.pairs(56, 11);
        const Q x16_31 = io.pairs(16, 31);
        // complex block of 3, multiplier 2
        const Q t54 = x56_11 + x16_31;
        const Q t55 = x56_11 - x16_31;
        const Q x36_51 = io.pairs(36, 51);
        const Q t56 = t54 + x36_51;
        const Q t57 = c[4] * t54;
        const Q t58 = x36_51 - t57;
        const Q t59 = Q(-c[5], c[5], -c[5], c[5]) * t55;
        const Q t60 = shuffled<1, 0, 3, 2>(t59);
        const Q t61 = t58 + t60;
        const Q t62 = t58 - t60;
        const Q x26_41 = io.pairs(26, 41);
        const Q x46_1 = io.pairs(46, 1);
        // complex block of 3, multiplier 2
        const Q t63 = x26_41 + x46_1;
        const Q t64 = x26_41 - x46_1;
        const Q x6_21 = io.pairs(6, 21);
        const Q t65 = t63 + x6_21;
        const Q t66 = c[4] * t63;
        const Q t67 = x6_21 - t66;
        const Q t68 = Q(-c[5], c[5], -c[5], c[5]) * t64;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = t67 + t69;
        const Q t71 = t67 - t69;
        const Q x8_23 = io.pairs(8, 23);
        const Q x28_43 = io.pairs(28, 43);
        // complex block of 3, multiplier 2
        const Q t72 = x8_23 + x28_43;
        const Q t73 = x8_23 - x28_43;
        const Q x48_3 = io.pairs(48, 3);
        const Q t74 = t72 + x48_3;
        const Q t75 = c[4] * t72;
        const Q t76 = x48_3 - t75;
        const Q t77 = Q(-c[5], c[5], -c[5], c[5]) * t73;
        const Q t78 = shuffled<1, 0, 3, 2>(t77);
        const Q t79 = t76 + t78;
        const Q t80 = t76 - t78;
        const Q x38_53 = io.pairs(38, 53);
        const Q x58_13 = io.pairs(58, 13);
        // complex block of 3, multiplier 2
        const Q t81 = x38_53 + x58_13;
        const Q t82 = x38_53 - x58_13;
        const Q x18_33 = io.pairs(18, 33);
        const Q t83 = t81 + x18_33;
        const Q t84 = c[4] * t81;
        const Q t85 = x18_33 - t84;
        const Q t86 = Q(-c[5], c[5], -c[5], c[5]) * t82;
        const Q t87 = shuffled<1, 0, 3, 2>(t86);
        const Q t88 = t85 + t87;
        const Q t89 = t85 - t87;
        // complex block of 5, multiplier 2
        const Q t90 = t20 + t74;
        const Q t91 = t20 - t74;
        const Q t92 = t56 + t38;
        const Q t93 = t56 - t38;
        const Q t94 = t90 + t92;
        const Q t95 = t94 + t2;
        const Q t96 = c[0] * t90;
        const Q t97 = c[1] * t92;
        const Q t98 = t96 - t97;
        const Q t99 = t98 + t2;
        const Q t100 = c[2] * t91;
        const Q t101 = c[3] * t93;
        const Q t102 = t100 - t101;
        const Q t103 = shuffled<1, 0, 3, 2>(t102);
        const Q t104 = flipped<0, 1, 0, 1>(t103);
        const Q t105 = t99 + t104;
        const Q t106 = t99 - t104;
        const Q t107 = c[1] * t90;
        const Q t108 = t2 - t107;
        const Q t109 = c[0] * t92;
        const Q t110 = t108 + t109;
        const Q t111 = c[3] * t91;
        const Q t112 = c[2] * t93;
        const Q t113 = t111 + t112;
        const Q t114 = shuffled<1, 0, 3, 2>(t113);
        const Q t115 = flipped<0, 1, 0, 1>(t114);
        const Q t116 = t110 + t115;
        const Q t117 = t110 - t115;
        // complex block of 5, multiplier 2
        const Q t118 = t29 + t83;
        const Q t119 = t29 - t83;
        const Q t120 = t65 + t47;
        const Q t121 = t65 - t47;
        const Q t122 = t118 + t120;
        const Q t123 = t122 + t11;
        const Q t124 = c[0] * t118;
        const Q t125 = c[1] * t120;
        const Q t126 = t124 - t125;
        const Q t127 = t126 + t11;
        const Q t128 = c[2] * t119;
        const Q t129 = c[3] * t121;
        const Q t130 = t128 - t129;
        const Q t131 = shuffled<1, 0, 3, 2>(t130);
        const Q t132 = flipped<0, 1, 0, 1>(t131);
        const Q t133 = t127 + t132;
        const Q t134 = t127 - t132;
        const Q t135 = c[1] * t118;
        const Q t136 = t11 - t135;
        const Q t137 = c[0] * t120;
        const Q t138 = t136 + t137;
        const Q t139 = c[3] * t119;
        const Q t140 = c[2] * t121;
        const Q t141 = t139 + t140;
        const Q t142 = shuffled<1, 0, 3, 2>(t141);
        const Q t143 = flipped<0, 1, 0, 1>(t142);
        const Q t144 = t138 + t143;
        const Q t145 = t138 - t143;
        // complex block of 5, multiplier 2
        const Q t146 = t26 + t80;
        const Q t147 = t26 - t80;
        const Q t148 = t62 + t44;
        const Q t149 = t62 - t44;
        const Q t150 = t146 + t148;
        const Q t151 = t150 + t8;
        const Q t152 = c[0] * t146;
        const Q t153 = c[1] * t148;
        const Q t154 = t152 - t153;
        const Q t155 = t154 + t8;
        const Q t156 = c[2] * t147;
        const Q t157 = c[3] * t149;
        const Q t158 = t156 - t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t158);
        const Q t160 = flipped<0, 1, 0, 1>(t159);
        const Q t161 = t155 + t160;
        const Q t162 = t155 - t160;
        const Q t163 = c[1] * t146;
        const Q t164 = t8 - t163;
        const Q t165 = c[0] * t148;
        const Q t166 = t164 + t165;
        const Q t167 = c[3] * t147;
        const Q t168 = c[2] * t149;
        const Q t169 = t167 + t168;
        const Q t170 = shuffled<1, 0, 3, 2>(t169);
        const Q t171 = flipped<0, 1, 0, 1>(t170);
        const Q t172 = t166 + t171;
        const Q t173 = t166 - t171;
        // complex block of 5, multiplier 2
        const Q t174 = t35 + t89;
        const Q t175 = t35 - t89;
        const Q t176 = t71 + t53;
        const Q t177 = t71 - t53;
        const Q t178 = t174 + t176;
        const Q t179 = t178 + t17;
        const Q t180 = c[0] * t174;
        const Q t181 = c[1] * t176;
        const Q t182 = t180 - t181;
        const Q t183 = t182 + t17;
        const Q t184 = c[2] * t175;
        const Q t185 = c[3] * t177;
        const Q t186 = t184 - t185;
        const Q t187 = shuffled<1, 0, 3, 2>(t186);
        const Q t188 = flipped<0, 1, 0, 1>(t187);
        const Q t189 = t183 + t188;
        const Q t190 = t183 - t188;
        const Q t191 = c[1] * t174;
        const Q t192 = t17 - t191;
        const Q t193 = c[0] * t176;
        const Q t194 = t192 + t193;
        const Q t195 = c[3] * t175;
        const Q t196 = c[2] * t177;
        const Q t197 = t195 + t196;
        const Q t198 = shuffled<1, 0, 3, 2>(t197);
        const Q t199 = flipped<0, 1, 0, 1>(t198);
        const Q t200 = t194 + t199;
        const Q t201 = t194 - t199;
        // complex block of 5, multiplier 2
        const Q t202 = t25 + t79;
        const Q t203 = t25 - t79;
        const Q t204 = t61 + t43;
        const Q t205 = t61 - t43;
        const Q t206 = t202 + t204;
        const Q t207 = t206 + t7;
        const Q t208 = c[0] * t202;
        const Q t209 = c[1] * t204;
        const Q t210 = t208 - t209;
        const Q t211 = t210 + t7;
        const Q t212 = c[2] * t203;
        const Q t213 = c[3] * t205;
        const Q t214 = t212 - t213;
        const Q t215 = shuffled<1, 0, 3, 2>(t214);
        const Q t216 = flipped<0, 1, 0, 1>(t215);
        const Q t217 = t211 + t216;
        const Q t218 = t211 - t216;
        const Q t219 = c[1] * t202;
        const Q t220 = t7 - t219;
        const Q t221 = c[0] * t204;
        const Q t222 = t220 + t221;
        const Q t223 = c[3] * t203;
        const Q t224 = c[2] * t205;
        const Q t225 = t223 + t224;
        const Q t226 = shuffled<1, 0, 3, 2>(t225);
        const Q t227 = flipped<0, 1, 0, 1>(t226);
        const Q t228 = t222 + t227;
        const Q t229 = t222 - t227;
        // complex block of 5, multiplier 2
        const Q t230 = t34 + t88;
        const Q t231 = t34 - t88;
        const Q t232 = t70 + t52;
        const Q t233 = t70 - t52;
        const Q t234 = t230 + t232;
        const Q t235 = t234 + t16;
        const Q t236 = c[0] * t230;
        const Q t237 = c[1] * t232;
        const Q t238 = t236 - t237;
        const Q t239 = t238 + t16;
        const Q t240 = c[2] * t231;
        const Q t241 = c[3] * t233;
        const Q t242 = t240 - t241;
        const Q t243 = shuffled<1, 0, 3, 2>(t242);
        const Q t244 = flipped<0, 1, 0, 1>(t243);
        const Q t245 = t239 + t244;
        const Q t246 = t239 - t244;
        const Q t247 = c[1] * t230;
        const Q t248 = t16 - t247;
        const Q t249 = c[0] * t232;
        const Q t250 = t248 + t249;
        const Q t251 = c[3] * t231;
        const Q t252 = c[2] * t233;
        const Q t253 = t251 + t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t253);
        const Q t255 = flipped<0, 1, 0, 1>(t254);
        const Q t256 = t250 + t255;
        const Q t257 = t250 - t255;
        const Q t258 = shuffled<0, 1, 4, 5>(t95, t116);
        const Q t259 = shuffled<0, 1, 4, 5>(t123, t144);
        // complex block of 2
        const Q t260 = t258 + t259;
        const Q t261 = t258 - t259;
        const Q t262 = shuffled<2, 3, 6, 7>(t95, t116);
        const Q t263 = shuffled<2, 3, 6, 7>(t123, t144);
        // complex block of 2
        const Q t264 = t262 + t263;
        const Q t265 = t262 - t263;
        // complex block of 2
        const Q t266 = t260 + t264;
        io.pairs(0, 12, t266);
        const Q t267 = t260 - t264;
        io.pairs(30, 42, t267);
        const Q t268 = shuffled<1, 0, 3, 2>(t265);
        const Q t269 = flipped<1, 0, 1, 0>(t268);
        // complex block of 2
        const Q t270 = t261 + t269;
        io.pairs(15, 27, t270);
        const Q t271 = t261 - t269;
        io.pairs(45, 57, t271);
        const Q t272 = shuffled<0, 1, 4, 5>(t106, t105);
        const Q t273 = shuffled<0, 1, 4, 5>(t134, t133);
        // complex block of 2
        const Q t274 = t272 + t273;
        const Q t275 = t272 - t273;
        const Q t276 = shuffled<2, 3, 6, 7>(t106, t105);
        const Q t277 = shuffled<2, 3, 6, 7>(t134, t133);
        // complex block of 2
        const Q t278 = t276 + t277;
        const Q t279 = t276 - t277;
        // complex block of 2
        const Q t280 = t274 + t278;
        io.pairs(24, 36, t280);
        const Q t281 = t274 - t278;
        io.pairs(54, 6, t281);
        const Q t282 = shuffled<1, 0, 3, 2>(t279);
        const Q t283 = flipped<1, 0, 1, 0>(t282);
        // complex block of 2
        const Q t284 = t275 + t283;
        io.pairs(39, 51, t284);
        const Q t285 = t275 - t283;
        io.pairs(9, 21, t285);
        const Q t286 = shuffled<0, 1, 4, 5>(t117, t151);
        const Q t287 = shuffled<0, 1, 4, 5>(t145, t179);
        // complex block of 2
        const Q t288 = t286 + t287;
        const Q t289 = t286 - t287;
        const Q t290 = shuffled<2, 3, 6, 7>(t117, t151);
        const Q t291 = shuffled<2, 3, 6, 7>(t145, t179);
        // complex block of 2
        const Q t292 = t290 + t291;
        const Q t293 = t290 - t291;
        // complex block of 2
        const Q t294 = t288 + t292;
        io.pairs(48, 20, t294);
        const Q t295 = t288 - t292;
        io.pairs(18, 50, t295);
        const Q t296 = shuffled<1, 0, 3, 2>(t293);
        const Q t297 = flipped<1, 0, 1, 0>(t296);
        // complex block of 2
        const Q t298 = t289 + t297;
        io.pairs(3, 35, t298);
        const Q t299 = t289 - t297;
        io.pairs(33, 5, t299);
        const Q t300 = shuffled<0, 1, 4, 5>(t172, t162);
        const Q t301 = shuffled<0, 1, 4, 5>(t200, t190);
        // complex block of 2
        const Q t302 = t300 + t301;
        const Q t303 = t300 - t301;
        const Q t304 = shuffled<2, 3, 6, 7>(t172, t162);
        const Q t305 = shuffled<2, 3, 6, 7>(t200, t190);
        // complex block of 2
        const Q t306 = t304 + t305;
        const Q t307 = t304 - t305;
        // complex block of 2
        const Q t308 = t302 + t306;
        io.pairs(32, 44, t308);
        const Q t309 = t302 - t306;
        io.pairs(2, 14, t309);
        const Q t310 = shuffled<1, 0, 3, 2>(t307);
        const Q t311 = flipped<1, 0, 1, 0>(t310);
        // complex block of 2
        const Q t312 = t303 + t311;
        io.pairs(47, 59, t312);
        const Q t313 = t303 - t311;
        io.pairs(17, 29, t313);
        const Q t314 = shuffled<0, 1, 4, 5>(t161, t173);
        const Q t315 = shuffled<0, 1, 4, 5>(t189, t201);
        // complex block of 2
        const Q t316 = t314 + t315;
        const Q t317 = t314 - t315;
        const Q t318 = shuffled<2, 3, 6, 7>(t161, t173);
        const Q t319 = shuffled<2, 3, 6, 7>(t189, t201);
        // complex block of 2
        const Q t320 = t318 + t319;
        const Q t321 = t318 - t319;
        // complex block of 2
        const Q t322 = t316 + t320;
        io.pairs(56, 8, t322);
        const Q t323 = t316 - t320;
        io.pairs(26, 38, t323);
        const Q t324 = shuffled<1, 0, 3, 2>(t321);
        const Q t325 = flipped<1, 0, 1, 0>(t324);
        // complex block of 2
        const Q t326 = t317 + t325;
        io.pairs(11, 23, t326);
        const Q t327 = t317 - t325;
        io.pairs(41, 53, t327);
        const Q t328 = shuffled<0, 1, 4, 5>(t207, t228);
        const Q t329 = shuffled<0, 1, 4, 5>(t235, t256);
        // complex block of 2
        const Q t330 = t328 + t329;
        const Q t331 = t328 - t329;
        const Q t332 = shuffled<2, 3, 6, 7>(t207, t228);
        const Q t333 = shuffled<2, 3, 6, 7>(t235, t256);
        // complex block of 2
        const Q t334 = t332 + t333;
        const Q t335 = t332 - t333;
        // complex block of 2
        const Q t336 = t330 + t334;
        io.pairs(40, 52, t336);
        const Q t337 = t330 - t334;
        io.pairs(10, 22, t337);
        const Q t338 = shuffled<1, 0, 3, 2>(t335);
        const Q t339 = flipped<1, 0, 1, 0>(t338);
        // complex block of 2
        const Q t340 = t331 + t339;
        io.pairs(55, 7, t340);
        const Q t341 = t331 - t339;
        io.pairs(25, 37, t341);
        const Q t342 = shuffled<0, 1, 4, 5>(t218, t217);
        const Q t343 = shuffled<0, 1, 4, 5>(t246, t245);
        // complex block of 2
        const Q t344 = t342 + t343;
        const Q t345 = t342 - t343;
        const Q t346 = shuffled<2, 3, 6, 7>(t218, t217);
        const Q t347 = shuffled<2, 3, 6, 7>(t246, t245);
        // complex block of 2
        const Q t348 = t346 + t347;
        const Q t349 = t346 - t347;
        // complex block of 2
        const Q t350 = t344 + t348;
        io.pairs(4, 16, t350);
        const Q t351 = t344 - t348;
        io.pairs(34, 46, t351);
        const Q t352 = shuffled<1, 0, 3, 2>(t349);
        const Q t353 = flipped<1, 0, 1, 0>(t352);
        // complex block of 2
        const Q t354 = t345 + t353;
        io.pairs(19, 31, t354);
        const Q t355 = t345 - t353;
        io.pairs(49, 1, t355);
        // complex block of 2
        const Q t356 = t229 + t257;
        const Q t357 = t229 - t257;
        const Q t358 = shuffled<0, 1, 4, 5>(t356, t357);
        const Q t359 = shuffled<2, 3, 6, 7>(t356, t357);
        const Q t360 = shuffled<0, 1, 3, 2>(t359);
        const Q t361 = flipped<0, 0, 1, 0>(t360);
        // complex block of 2
        const Q t362 = t358 + t361;
        io.pairs(28, 43, t362);
        const Q t363 = t358 - t361;
        io.pairs(58, 13, t363);
    }
};

}  // namespace zulg
