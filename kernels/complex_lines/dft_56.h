// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 56.
// Complex DFT of 56 points, prime-factor, order 7, 8; two lines of a stage to a register.
// 113 sums, 98 differences, 79 products of registers, which do the 1272 steps of the graph, those with
// `scale` included; 63 shuffles, 43 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<56> {
    static constexpr int steps = 1272;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.7071067811865476,  // c[6]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x8_15 = io.pairs(8, 15);
        const Q x48_55 = io.pairs(48, 55);
        // complex block of 7
        const Q t0 = x8_15 + x48_55;
        const Q t1 = x8_15 - x48_55;
        const Q x40_47 = io.pairs(40, 47);
        const Q x16_23 = io.pairs(16, 23);
        const Q t2 = x40_47 + x16_23;
        const Q t3 = x40_47 - x16_23;
        const Q x32_39 = io.pairs(32, 39);
        const Q x24_31 = io.pairs(24, 31);
        const Q t4 = x32_39 + x24_31;
        const Q t5 = x32_39 - x24_31;
        const Q t6 = t0 + t2;
        const Q t7 = t6 + t4;
        const Q x0_7 = io.pairs(0, 7);
        const Q t8 = t7 + x0_7;
        const Q t9 = c[0] * t0;
        const Q t10 = c[1] * t2;
        const Q t11 = t9 - t10;
        const Q t12 = c[2] * t4;
        const Q t13 = t11 - t12;
        const Q t14 = t13 + x0_7;
        const Q t15 = c[3] * t1;
        const Q t16 = c[4] * t3;
        const Q t17 = t15 - t16;
        const Q t18 = c[5] * t5;
        const Q t19 = t17 - t18;
        const Q t20 = shuffled<1, 0, 3, 2>(t19);
        const Q t21 = flipped<0, 1, 0, 1>(t20);
        const Q t22 = t14 + t21;
        const Q t23 = t14 - t21;
        const Q t24 = c[1] * t0;
        const Q t25 = x0_7 - t24;
        const Q t26 = c[2] * t2;
        const Q t27 = t25 - t26;
        const Q t28 = c[0] * t4;
        const Q t29 = t27 + t28;
        const Q t30 = c[4] * t1;
        const Q t31 = c[5] * t3;
        const Q t32 = t30 + t31;
        const Q t33 = c[3] * t5;
        const Q t34 = t32 + t33;
        const Q t35 = shuffled<1, 0, 3, 2>(t34);
        const Q t36 = flipped<0, 1, 0, 1>(t35);
        const Q t37 = t29 + t36;
        const Q t38 = t29 - t36;
        const Q t39 = c[2] * t0;
        const Q t40 = x0_7 - t39;
        const Q t41 = c[0] * t2;
        const Q t42 = t40 + t41;
        const Q t43 = c[1] * t4;
        const Q t44 = t42 - t43;
        const Q t45 = c[5] * t1;
        const Q t46 = c[3] * t3;
        const Q t47 = t45 + t46;
        const Q t48 = c[4] * t5;
        const Q t49 = t47 - t48;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = flipped<0, 1, 0, 1>(t50);
        const Q t52 = t44 + t51;
        const Q t53 = t44 - t51;
        const Q x22_29 = io.pairs(22, 29);
        const Q x6_13 = io.pairs(6, 13);
        // complex block of 7
        const Q t54 = x22_29 + x6_13;
        const Q t55 = x22_29 - x6_13;
        const Q x54_5 = io.pairs(54, 5);
        const Q x30_37 = io.pairs(30, 37);
        const Q t56 = x54_5 + x30_37;
        const Q t57 = x54_5 - x30_37;
        const Q x46_53 = io.pairs(46, 53);
        const Q x38_45 = io.pairs(38, 45);
        const Q t58 = x46_53 + x38_45;
        const Q t59 = x46_53 - x38_45;
        const Q t60 = t54 + t56;
        const Q t61 = t60 + t58;
        const Q x14_21 = io.pairs(14, 21);
        const Q t62 = t61 + x14_21;
        const Q t63 = c[0] * t54;
        const Q t64 = c[1] * t56;
        const Q t65 = t63 - t64;
        const Q t66 = c[2] * t58;
        const Q t67 = t65 - t66;
        const Q t68 = t67 + x14_21;
        const Q t69 = c[3] * t55;
        const Q t70 = c[4] * t57;
        const Q t71 = t69 - t70;
        const Q t72 = c[5] * t59;
        const Q t73 = t71 - t72;
        const Q t74 = shuffled<1, 0, 3, 2>(t73);
        const Q t75 = flipped<0, 1, 0, 1>(t74);
        const Q t76 = t68 + t75;
        const Q t77 = t68 - t75;
        const Q t78 = c[1] * t54;
        const Q t79 = x14_21 - t78;
        const Q t80 = c[2] * t56;
        const Q t81 = t79 - t80;
        const Q t82 = c[0] * t58;
        const Q t83 = t81 + t82;
        const Q t84 = c[4] * t55;
        const Q t85 = c[5] * t57;
        const Q t86 = t84 + t85;
        const Q t87 = c[3] * t59;
        const Q t88 = t86 + t87;
        const Q t89 = shuffled<1, 0, 3, 2>(t88);
        const Q t90 = flipped<0, 1, 0, 1>(t89);
        const Q t91 = t83 + t90;
        const Q t92 = t83 - t90;
        const Q t93 = c[2] * t54;
        const Q t94 = x14_21 - t93;
        const Q t95 = c[0] * t56;
        const Q t96 = t94 + t95;
        const Q t97 = c[1] * t58;
        const Q t98 = t96 - t97;
        const Q t99 = c[5] * t55;
        const Q t100 = c[3] * t57;
        const Q t101 = t99 + t100;
        const Q t102 = c[4] * t59;
        const Q t103 = t101 - t102;
        const Q t104 = shuffled<1, 0, 3, 2>(t103);
        const Q t105 = flipped<0, 1, 0, 1>(t104);
        const Q t106 = t98 + t105;
        const Q t107 = t98 - t105;
        const Q x36_43 = io.pairs(36, 43);
        const Q x20_27 = io.pairs(20, 27);
        // complex block of 7
        const Q t108 = x36_43 + x20_27;
        const Q t109 = x36_43 - x20_27;
        const Q x12_19 = io.pairs(12, 19);
        const Q x44_51 = io.pairs(44, 51);
        const Q t110 = x12_19 + x44_51;
        const Q t111 = x12_19 - x44_51;
        const Q x4_11 = io.pairs(4, 11);
        const Q x52_3 = io.pairs(52, 3);
        const Q t112 = x4_11 + x52_3;
        const Q t113 = x4_11 - x52_3;
        const Q t114 = t108 + t110;
        const Q t115 = t114 + t112;
        const Q x28_35 = io.pairs(28, 35);
        const Q t116 = t115 + x28_35;
        const Q t117 = c[0] * t108;
        const Q t118 = c[1] * t110;
        const Q t119 = t117 - t118;
        const Q t120 = c[2] * t112;
        const Q t121 = t119 - t120;
        const Q t122 = t121 + x28_35;
        const Q t123 = c[3] * t109;
        const Q t124 = c[4] * t111;
        const Q t125 = t123 - t124;
        const Q t126 = c[5] * t113;
        const Q t127 = t125 - t126;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = flipped<0, 1, 0, 1>(t128);
        const Q t130 = t122 + t129;
        const Q t131 = t122 - t129;
        const Q t132 = c[1] * t108;
        const Q t133 = x28_35 - t132;
        const Q t134 = c[2] * t110;
        const Q t135 = t133 - t134;
        const Q t136 = c[0] * t112;
        const Q t137 = t135 + t136;
        const Q t138 = c[4] * t109;
        const Q t139 = c[5] * t111;
        const Q t140 = t138 + t139;
        const Q t141 = c[3] * t113;
        const Q t142 = t140 + t141;
        const Q t143 = shuffled<1, 0, 3, 2>(t142);
        const Q t144 = flipped<0, 1, 0, 1>(t143);
        const Q t145 = t137 + t144;
        const Q t146 = t137 - t144;
        const Q t147 = c[2] * t108;
        const Q t148 = x28_35 - t147;
        const Q t149 = c[0] * t110;
        const Q t150 = t148 + t149;
        const Q t151 = c[1] * t112;
        const Q t152 = t150 - t151;
        const Q t153 = c[5] * t109;
        const Q t154 = c[3] * t111;
        const Q t155 = t153 + t154;
        const Q t156 = c[4] * t113;
        const Q t157 = t155 - t156;
        const Q t158 = shuffled<1, 0, 3, 2>(t157);
        const Q t159 = flipped<0, 1, 0, 1>(t158);
        const Q t160 = t152 + t159;
        const Q t161 = t152 - t159;
        const Q x50_1 = io.pairs(50, 1);
        const Q x34_41 = io.pairs(34, 41);
        // complex block of 7
        const Q t162 = x50_1 + x34_41;
        const Q t163 = x50_1 - x34_41;
        const Q x26_33 = io.pairs(26, 33);
        const Q x2_9 = io.pairs(2, 9);
        const Q t164 = x26_33 + x2_9;
        const Q t165 = x26_33 - x2_9;
        const Q x18_25 = io.pairs(18, 25);
        const Q x10_17 = io.pairs(10, 17);
        const Q t166 = x18_25 + x10_17;
        const Q t167 = x18_25 - x10_17;
        const Q t168 = t162 + t164;
        const Q t169 = t168 + t166;
        const Q x42_49 = io.pairs(42, 49);
        const Q t170 = t169 + x42_49;
        const Q t171 = c[0] * t162;
        const Q t172 = c[1] * t164;
        const Q t173 = t171 - t172;
        const Q t174 = c[2] * t166;
        const Q t175 = t173 - t174;
        const Q t176 = t175 + x42_49;
        const Q t177 = c[3] * t163;
        const Q t178 = c[4] * t165;
        const Q t179 = t177 - t178;
        const Q t180 = c[5] * t167;
        const Q t181 = t179 - t180;
        const Q t182 = shuffled<1, 0, 3, 2>(t181);
        const Q t183 = flipped<0, 1, 0, 1>(t182);
        const Q t184 = t176 + t183;
        const Q t185 = t176 - t183;
        const Q t186 = c[1] * t162;
        const Q t187 = x42_49 - t186;
        const Q t188 = c[2] * t164;
        const Q t189 = t187 - t188;
        const Q t190 = c[0] * t166;
        const Q t191 = t189 + t190;
        const Q t192 = c[4] * t163;
        const Q t193 = c[5] * t165;
        const Q t194 = t192 + t193;
        const Q t195 = c[3] * t167;
        const Q t196 = t194 + t195;
        const Q t197 = shuffled<1, 0, 3, 2>(t196);
        const Q t198 = flipped<0, 1, 0, 1>(t197);
        const Q t199 = t191 + t198;
        const Q t200 = t191 - t198;
        const Q t201 = c[2] * t162;
        const Q t202 = x42_49 - t201;
        const Q t203 = c[0] * t164;
        const Q t204 = t202 + t203;
        const Q t205 = c[1] * t166;
        const Q t206 = t204 - t205;
        const Q t207 = c[5] * t163;
        const Q t208 = c[3] * t165;
        const Q t209 = t207 + t208;
        const Q t210 = c[4] * t167;
        const Q t211 = t209 - t210;
        const Q t212 = shuffled<1, 0, 3, 2>(t211);
        const Q t213 = flipped<0, 1, 0, 1>(t212);
        const Q t214 = t206 + t213;
        const Q t215 = t206 - t213;
        const Q t216 = shuffled<0, 1, 4, 5>(t8, t22);
        const Q t217 = shuffled<0, 1, 4, 5>(t116, t130);
        // complex block of 2
        const Q t218 = t216 + t217;
        const Q t219 = t216 - t217;
        const Q t220 = shuffled<2, 3, 6, 7>(t8, t22);
        const Q t221 = shuffled<2, 3, 6, 7>(t116, t130);
        // complex block of 2
        const Q t222 = t220 + t221;
        const Q t223 = t220 - t221;
        const Q t224 = shuffled<0, 1, 4, 5>(t62, t76);
        const Q t225 = shuffled<0, 1, 4, 5>(t170, t184);
        // complex block of 2
        const Q t226 = t224 + t225;
        const Q t227 = t224 - t225;
        const Q t228 = shuffled<2, 3, 6, 7>(t62, t76);
        const Q t229 = shuffled<2, 3, 6, 7>(t170, t184);
        // complex block of 2
        const Q t230 = t228 + t229;
        const Q t231 = t228 - t229;
        // complex block of 2
        const Q t232 = t218 + t226;
        const Q t233 = t218 - t226;
        // complex block of 2
        const Q t234 = t222 + t230;
        const Q t235 = t222 - t230;
        // complex block of 2
        const Q t236 = t232 + t234;
        io.pairs(0, 8, t236);
        const Q t237 = t232 - t234;
        io.pairs(28, 36, t237);
        const Q t238 = shuffled<1, 0, 3, 2>(t235);
        const Q t239 = flipped<1, 0, 1, 0>(t238);
        // complex block of 2
        const Q t240 = t233 + t239;
        io.pairs(14, 22, t240);
        const Q t241 = t233 - t239;
        io.pairs(42, 50, t241);
        // complex block of 8, multiplier 7
        const Q t242 = c[6] * t223;
        const Q t243 = shuffled<1, 0, 3, 2>(t242);
        const Q t244 = flipped<0, 1, 0, 1>(t243);
        const Q t245 = t242 + t244;
        const Q t246 = c[6] * t231;
        const Q t247 = shuffled<1, 0, 3, 2>(t246);
        const Q t248 = flipped<0, 1, 0, 1>(t247);
        const Q t249 = t246 + t248;
        const Q t250 = shuffled<1, 0, 3, 2>(t227);
        const Q t251 = flipped<1, 0, 1, 0>(t250);
        // complex block of 2
        const Q t252 = t219 + t251;
        const Q t253 = t219 - t251;
        const Q t254 = shuffled<1, 0, 3, 2>(t245);
        const Q t255 = flipped<0, 1, 0, 1>(t249);
        // complex block of 2
        const Q t256 = t254 + t255;
        const Q t257 = flipped<1, 0, 1, 0>(t254);
        const Q t258 = t257 + t249;
        const Q t259 = flipped<1, 0, 1, 0>(t256);
        // complex block of 2
        const Q t260 = t252 + t259;
        io.pairs(7, 15, t260);
        const Q t261 = t252 - t259;
        io.pairs(35, 43, t261);
        const Q t262 = shuffled<1, 0, 3, 2>(t258);
        const Q t263 = flipped<1, 0, 1, 0>(t262);
        // complex block of 2
        const Q t264 = t253 + t263;
        io.pairs(21, 29, t264);
        const Q t265 = t253 - t263;
        io.pairs(49, 1, t265);
        const Q t266 = shuffled<0, 1, 4, 5>(t37, t52);
        const Q t267 = shuffled<0, 1, 4, 5>(t145, t160);
        // complex block of 2
        const Q t268 = t266 + t267;
        const Q t269 = t266 - t267;
        const Q t270 = shuffled<2, 3, 6, 7>(t37, t52);
        const Q t271 = shuffled<2, 3, 6, 7>(t145, t160);
        // complex block of 2
        const Q t272 = t270 + t271;
        const Q t273 = t270 - t271;
        const Q t274 = shuffled<0, 1, 4, 5>(t91, t106);
        const Q t275 = shuffled<0, 1, 4, 5>(t199, t214);
        // complex block of 2
        const Q t276 = t274 + t275;
        const Q t277 = t274 - t275;
        const Q t278 = shuffled<2, 3, 6, 7>(t91, t106);
        const Q t279 = shuffled<2, 3, 6, 7>(t199, t214);
        // complex block of 2
        const Q t280 = t278 + t279;
        const Q t281 = t278 - t279;
        // complex block of 2
        const Q t282 = t268 + t276;
        const Q t283 = t268 - t276;
        // complex block of 2
        const Q t284 = t272 + t280;
        const Q t285 = t272 - t280;
        // complex block of 2
        const Q t286 = t282 + t284;
        io.pairs(16, 24, t286);
        const Q t287 = t282 - t284;
        io.pairs(44, 52, t287);
        const Q t288 = shuffled<1, 0, 3, 2>(t285);
        const Q t289 = flipped<1, 0, 1, 0>(t288);
        // complex block of 2
        const Q t290 = t283 + t289;
        io.pairs(30, 38, t290);
        const Q t291 = t283 - t289;
        io.pairs(2, 10, t291);
        // complex block of 8, multiplier 7
        const Q t292 = c[6] * t273;
        const Q t293 = shuffled<1, 0, 3, 2>(t292);
        const Q t294 = flipped<0, 1, 0, 1>(t293);
        const Q t295 = t292 + t294;
        const Q t296 = c[6] * t281;
        const Q t297 = shuffled<1, 0, 3, 2>(t296);
        const Q t298 = flipped<0, 1, 0, 1>(t297);
        const Q t299 = t296 + t298;
        const Q t300 = shuffled<1, 0, 3, 2>(t277);
        const Q t301 = flipped<1, 0, 1, 0>(t300);
        // complex block of 2
        const Q t302 = t269 + t301;
        const Q t303 = t269 - t301;
        const Q t304 = shuffled<1, 0, 3, 2>(t295);
        const Q t305 = flipped<0, 1, 0, 1>(t299);
        // complex block of 2
        const Q t306 = t304 + t305;
        const Q t307 = flipped<1, 0, 1, 0>(t304);
        const Q t308 = t307 + t299;
        const Q t309 = flipped<1, 0, 1, 0>(t306);
        // complex block of 2
        const Q t310 = t302 + t309;
        io.pairs(23, 31, t310);
        const Q t311 = t302 - t309;
        io.pairs(51, 3, t311);
        const Q t312 = shuffled<1, 0, 3, 2>(t308);
        const Q t313 = flipped<1, 0, 1, 0>(t312);
        // complex block of 2
        const Q t314 = t303 + t313;
        io.pairs(37, 45, t314);
        const Q t315 = t303 - t313;
        io.pairs(9, 17, t315);
        const Q t316 = shuffled<0, 1, 4, 5>(t53, t38);
        const Q t317 = shuffled<0, 1, 4, 5>(t161, t146);
        // complex block of 2
        const Q t318 = t316 + t317;
        const Q t319 = t316 - t317;
        const Q t320 = shuffled<2, 3, 6, 7>(t53, t38);
        const Q t321 = shuffled<2, 3, 6, 7>(t161, t146);
        // complex block of 2
        const Q t322 = t320 + t321;
        const Q t323 = t320 - t321;
        const Q t324 = shuffled<0, 1, 4, 5>(t107, t92);
        const Q t325 = shuffled<0, 1, 4, 5>(t215, t200);
        // complex block of 2
        const Q t326 = t324 + t325;
        const Q t327 = t324 - t325;
        const Q t328 = shuffled<2, 3, 6, 7>(t107, t92);
        const Q t329 = shuffled<2, 3, 6, 7>(t215, t200);
        // complex block of 2
        const Q t330 = t328 + t329;
        const Q t331 = t328 - t329;
        // complex block of 2
        const Q t332 = t318 + t326;
        const Q t333 = t318 - t326;
        // complex block of 2
        const Q t334 = t322 + t330;
        const Q t335 = t322 - t330;
        // complex block of 2
        const Q t336 = t332 + t334;
        io.pairs(32, 40, t336);
        const Q t337 = t332 - t334;
        io.pairs(4, 12, t337);
        const Q t338 = shuffled<1, 0, 3, 2>(t335);
        const Q t339 = flipped<1, 0, 1, 0>(t338);
        // complex block of 2
        const Q t340 = t333 + t339;
        io.pairs(46, 54, t340);
        const Q t341 = t333 - t339;
        io.pairs(18, 26, t341);
        // complex block of 8, multiplier 7
        const Q t342 = c[6] * t323;
        const Q t343 = shuffled<1, 0, 3, 2>(t342);
        const Q t344 = flipped<0, 1, 0, 1>(t343);
        const Q t345 = t342 + t344;
        const Q t346 = c[6] * t331;
        const Q t347 = shuffled<1, 0, 3, 2>(t346);
        const Q t348 = flipped<0, 1, 0, 1>(t347);
        const Q t349 = t346 + t348;
        const Q t350 = shuffled<1, 0, 3, 2>(t327);
        const Q t351 = flipped<1, 0, 1, 0>(t350);
        // complex block of 2
        const Q t352 = t319 + t351;
        const Q t353 = t319 - t351;
        const Q t354 = shuffled<1, 0, 3, 2>(t345);
        const Q t355 = flipped<0, 1, 0, 1>(t349);
        // complex block of 2
        const Q t356 = t354 + t355;
        const Q t357 = flipped<1, 0, 1, 0>(t354);
        const Q t358 = t357 + t349;
        const Q t359 = flipped<1, 0, 1, 0>(t356);
        // complex block of 2
        const Q t360 = t352 + t359;
        io.pairs(39, 47, t360);
        const Q t361 = t352 - t359;
        io.pairs(11, 19, t361);
        const Q t362 = shuffled<1, 0, 3, 2>(t358);
        const Q t363 = flipped<1, 0, 1, 0>(t362);
        // complex block of 2
        const Q t364 = t353 + t363;
        io.pairs(53, 5, t364);
        const Q t365 = t353 - t363;
        io.pairs(25, 33, t365);
        // complex block of 2
        const Q t366 = t23 + t131;
        const Q t367 = t23 - t131;
        // complex block of 2
        const Q t368 = t77 + t185;
        const Q t369 = t77 - t185;
        const Q t370 = shuffled<2, 3, 6, 7>(t367, t369);
        // complex block of 8, multiplier 7
        const Q t371 = c[6] * t370;
        const Q t372 = shuffled<1, 0, 3, 2>(t371);
        const Q t373 = flipped<0, 1, 0, 1>(t372);
        const Q t374 = t371 + t373;
        const Q t375 = shuffled<0, 1, 4, 5>(t366, t367);
        const P t376 = part<0>(t368);
        const P t377 = part<0>(t369);
        const P t378 = shuffled<1, 0>(t377);
        const P t379 = flipped<1, 0>(t378);
        const Q t380 = joined(t376, t379);
        // complex block of 2
        const Q t381 = t375 + t380;
        const Q t382 = t375 - t380;
        const Q t383 = shuffled<2, 3, 4, 5>(t366, t374);
        const Q t384 = shuffled<0, 1, 3, 2>(t383);
        const Q t385 = shuffled<2, 3, 6, 7>(t368, t374);
        const Q t386 = flipped<0, 0, 0, 1>(t385);
        // complex block of 2
        const Q t387 = t384 + t386;
        const Q t388 = flipped<0, 0, 1, 0>(t384);
        const Q t389 = flipped<1, 1, 0, 1>(t386);
        const Q t390 = t388 + t389;
        const Q t391 = flipped<0, 0, 1, 0>(t387);
        // complex block of 2
        const Q t392 = t381 + t391;
        io.pairs(48, 55, t392);
        const Q t393 = t381 - t391;
        io.pairs(20, 27, t393);
        const Q t394 = shuffled<1, 0, 3, 2>(t390);
        const Q t395 = flipped<1, 0, 1, 0>(t394);
        // complex block of 2
        const Q t396 = t382 + t395;
        io.pairs(6, 13, t396);
        const Q t397 = t382 - t395;
        io.pairs(34, 41, t397);
    }
};

}  // namespace zulg
