// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 55.
// Forward DFT of 55 real points, prime-factor 11, 5; up to four lanes to a register.
// 93 sums, 89 differences, 132 products of registers, which do the 865 steps of the graph, those with
// `scale` included; 54 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardLines<55> {
    static constexpr int steps = 865;  // with `scale`
    static constexpr double inverseRoot = 0.13483997249264842;  // 1/sqrt(55), for `scale`
    static constexpr double constants[] = {
        0.9594929736144974,  // c[0]: -cos 2 pi 5/11
        0.8412535328311812,  // c[1]: cos 2 pi 45/11
        0.41541501300188644,  // c[2]: cos 2 pi 20/11
        0.6548607339452851,  // c[3]: -cos 2 pi 15/11
        0.14231483827328514,  // c[4]: -cos 2 pi 30/11
        0.9096319953545183,  // c[5]: -sin 2 pi 20/11
        0.9898214418809327,  // c[6]: -sin 2 pi 30/11
        0.28173255684142967,  // c[7]: sin 2 pi 5/11
        0.5406408174555976,  // c[8]: sin 2 pi 45/11
        0.7557495743542583,  // c[9]: sin 2 pi 15/11
        0.30901699437494745,  // c[10]: cos 2 pi 1/5
        0.8090169943749475,  // c[11]: -cos 2 pi 3/5
        0.5877852522924731,  // c[12]: -sin 2 pi 3/5
        0.9510565162951535,  // c[13]: sin 2 pi 1/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealForwardLines> c{};
        const Q x45_1_12_23 = io.in(45, 1, 12, 23);
        const Q x10_21_32_43 = io.in(10, 21, 32, 43);
        // real block of 11, multiplier 5
        const Q t0 = x45_1_12_23 + x10_21_32_43;
        const Q t1 = x45_1_12_23 - x10_21_32_43;
        const Q x50_16_17_38 = io.in(50, 16, 17, 38);
        const P x5_6 = io.in(5, 6);
        const P x27_28 = io.in(27, 28);
        const Q t2 = joined(x5_6, x27_28);
        const Q t3 = x50_16_17_38 + t2;
        const Q t4 = shuffled<0, 5, 2, 7>(t2, x50_16_17_38);
        const Q t5 = shuffled<0, 5, 2, 7>(x50_16_17_38, t2);
        const Q t6 = t4 - t5;
        const Q t7 = t3 + t0;
        const Q x0_11_22_33 = io.in(0, 11, 22, 33);
        const Q t8 = c[0] * t3;
        const Q t9 = x0_11_22_33 - t8;
        const Q t10 = c[1] * t3;
        const Q t11 = c[2] * t0;
        const Q t12 = t10 + t11;
        const Q t13 = c[3] * t3;
        const Q t14 = x0_11_22_33 - t13;
        const Q t15 = c[2] * t3;
        const Q t16 = c[3] * t0;
        const Q t17 = t15 - t16;
        const Q t18 = c[4] * t3;
        const Q t19 = x0_11_22_33 - t18;
        const Q x20_31_42_53 = io.in(20, 31, 42, 53);
        const Q x35_46_2_13 = io.in(35, 46, 2, 13);
        const Q t20 = x20_31_42_53 + x35_46_2_13;
        const Q t21 = x20_31_42_53 - x35_46_2_13;
        const Q x30_41_52_8 = io.in(30, 41, 52, 8);
        const Q x25_36_47_3 = io.in(25, 36, 47, 3);
        const Q t22 = x30_41_52_8 - x25_36_47_3;
        const Q t23 = x30_41_52_8 + x25_36_47_3;
        const Q x15_26_37_48 = io.in(15, 26, 37, 48);
        const Q x40_51_7_18 = io.in(40, 51, 7, 18);
        const Q t24 = x15_26_37_48 + x40_51_7_18;
        const Q t25 = x15_26_37_48 - x40_51_7_18;
        const Q t26 = t7 + t24;
        const Q t27 = t26 + t20;
        const Q t28 = t27 + t23;
        const Q t29 = c[1] * t0;
        const Q t30 = t9 + t29;
        const Q t31 = c[3] * t24;
        const Q t32 = t30 - t31;
        const Q t33 = c[2] * t20;
        const Q t34 = t32 + t33;
        const Q t35 = c[5] * t21;
        const Q t36 = c[6] * t22;
        const Q t37 = t35 + t36;
        const Q t38 = c[7] * t6;
        const Q t39 = t37 - t38;
        const Q t40 = c[8] * t1;
        const Q t41 = t39 - t40;
        const Q t42 = c[4] * t24;
        const Q t43 = t12 - t42;
        const Q t44 = c[3] * t20;
        const Q t45 = t43 - t44;
        const Q t46 = c[0] * t23;
        const Q t47 = t45 - t46;
        const Q t48 = c[8] * t6;
        const Q t49 = c[6] * t25;
        const Q t50 = t48 + t49;
        const Q t51 = c[9] * t21;
        const Q t52 = t50 + t51;
        const Q t53 = c[5] * t1;
        const Q t54 = t52 - t53;
        const Q t55 = c[4] * t0;
        const Q t56 = t14 - t55;
        const Q t57 = c[1] * t24;
        const Q t58 = t56 + t57;
        const Q t59 = c[0] * t20;
        const Q t60 = t58 - t59;
        const Q t61 = c[9] * t6;
        const Q t62 = c[6] * t1;
        const Q t63 = t61 + t62;
        const Q t64 = c[8] * t25;
        const Q t65 = t63 + t64;
        const Q t66 = c[7] * t21;
        const Q t67 = t65 + t66;
        const Q t68 = c[0] * t24;
        const Q t69 = t17 - t68;
        const Q t70 = c[4] * t20;
        const Q t71 = t69 - t70;
        const Q t72 = c[1] * t23;
        const Q t73 = t71 + t72;
        const Q t74 = c[5] * t6;
        const Q t75 = c[8] * t22;
        const Q t76 = t74 + t75;
        const Q t77 = c[9] * t1;
        const Q t78 = t76 - t77;
        const Q t79 = c[7] * t25;
        const Q t80 = t78 - t79;
        const Q t81 = c[0] * t0;
        const Q t82 = t19 - t81;
        const Q t83 = c[2] * t24;
        const Q t84 = t82 + t83;
        const Q t85 = c[1] * t20;
        const Q t86 = t84 + t85;
        const Q t87 = c[5] * t25;
        const Q t88 = c[9] * t22;
        const Q t89 = t87 + t88;
        const Q t90 = c[6] * t6;
        const Q t91 = t89 - t90;
        const Q t92 = c[7] * t1;
        const Q t93 = t91 - t92;
        const V x4 = io.in(4);
        const V x29 = io.in(29);
        // real block of 11, multiplier 5
        const V t94 = x4 + x29;
        const V t95 = x4 - x29;
        const V x9 = io.in(9);
        const V x24 = io.in(24);
        const V t96 = x9 + x24;
        const V t97 = x9 - x24;
        const V x19 = io.in(19);
        const V x14 = io.in(14);
        const V t98 = x19 - x14;
        const V t99 = x19 + x14;
        const V x34 = io.in(34);
        const V x54 = io.in(54);
        const V t100 = x34 + x54;
        const V t101 = x34 - x54;
        const V x49 = io.in(49);
        const V x39 = io.in(39);
        const V t102 = x49 + x39;
        const V t103 = x49 - x39;
        const V t104 = t102 + t100;
        const V x44 = io.in(44);
        const V t105 = c[0] * t102;
        const V t106 = x44 - t105;
        const V t107 = c[1] * t102;
        const V t108 = c[2] * t100;
        const V t109 = t107 + t108;
        const V t110 = c[3] * t102;
        const V t111 = x44 - t110;
        const V t112 = c[2] * t102;
        const V t113 = c[3] * t100;
        const V t114 = t112 - t113;
        const V t115 = c[4] * t102;
        const V t116 = x44 - t115;
        const V t117 = t104 + t94;
        const V t118 = t117 + t96;
        const V t119 = t118 + t99;
        const V t120 = c[1] * t100;
        const V t121 = t106 + t120;
        const V t122 = c[3] * t94;
        const V t123 = t121 - t122;
        const V t124 = c[2] * t96;
        const V t125 = t123 + t124;
        const V t126 = c[5] * t97;
        const V t127 = c[6] * t98;
        const V t128 = t126 + t127;
        const V t129 = c[7] * t103;
        const V t130 = t128 - t129;
        const V t131 = c[8] * t101;
        const V t132 = t130 - t131;
        const V t133 = c[4] * t94;
        const V t134 = t109 - t133;
        const V t135 = c[3] * t96;
        const V t136 = t134 - t135;
        const V t137 = c[0] * t99;
        const V t138 = t136 - t137;
        const V t139 = c[8] * t103;
        const V t140 = c[6] * t95;
        const V t141 = t139 + t140;
        const V t142 = c[9] * t97;
        const V t143 = t141 + t142;
        const V t144 = c[5] * t101;
        const V t145 = t143 - t144;
        const V t146 = c[4] * t100;
        const V t147 = t111 - t146;
        const V t148 = c[1] * t94;
        const V t149 = t147 + t148;
        const V t150 = c[0] * t96;
        const V t151 = t149 - t150;
        const V t152 = c[9] * t103;
        const V t153 = c[6] * t101;
        const V t154 = t152 + t153;
        const V t155 = c[8] * t95;
        const V t156 = t154 + t155;
        const V t157 = c[7] * t97;
        const V t158 = t156 + t157;
        const V t159 = c[0] * t94;
        const V t160 = t114 - t159;
        const V t161 = c[4] * t96;
        const V t162 = t160 - t161;
        const V t163 = c[1] * t99;
        const V t164 = t162 + t163;
        const V t165 = c[5] * t103;
        const V t166 = c[8] * t98;
        const V t167 = t165 + t166;
        const V t168 = c[9] * t101;
        const V t169 = t167 - t168;
        const V t170 = c[7] * t95;
        const V t171 = t169 - t170;
        const V t172 = c[0] * t100;
        const V t173 = t116 - t172;
        const V t174 = c[2] * t94;
        const V t175 = t173 + t174;
        const V t176 = c[1] * t96;
        const V t177 = t175 + t176;
        const V t178 = c[5] * t95;
        const V t179 = c[9] * t98;
        const V t180 = t178 + t179;
        const V t181 = c[6] * t103;
        const V t182 = t180 - t181;
        const V t183 = c[7] * t101;
        const V t184 = t182 - t183;
        // real block of 11, multiplier 5
        const Q t185 = t28 + x0_11_22_33;
        // real block of 11, multiplier 5
        const V t186 = t119 + x44;
        const P t187 = part<0>(t185);
        const V t188 = part<1>(t187);
        // real block of 5
        const V t189 = t188 + t186;
        const P t190 = part<1>(t185);
        const V t191 = part<1>(t190);
        const V t192 = part<0>(t190);
        const V t193 = t191 + t192;
        const V t194 = t188 - t186;
        const V t195 = t191 - t192;
        const V t196 = t189 + t193;
        const V t197 = part<0>(t187);
        const V t198 = t196 + t197;
        io.re(0, t198);
        const V t199 = c[10] * t189;
        const V t200 = c[11] * t193;
        const V t201 = t199 - t200;
        const V t202 = t201 + t197;
        const V t203 = c[12] * t195;
        const V t204 = c[13] * t194;
        const V t205 = t203 - t204;
        const P t206 = joined(t202, t205);
        io.pair(11, t206);
        const V t207 = c[11] * t189;
        const V t208 = t197 - t207;
        const V t209 = c[10] * t193;
        const V t210 = t208 + t209;
        const V t211 = c[12] * t194;
        const V t212 = c[13] * t195;
        const V t213 = t211 + t212;
        const V t214 = flipped<1>(t213);
        const P t215 = joined(t210, t214);
        io.pair(22, t215);
        // real block of 11, multiplier 5
        const Q t216 = c[4] * t23;
        const Q t217 = t34 - t216;
        const Q t218 = c[9] * t25;
        const Q t219 = t41 - t218;
        const Q t220 = t47 + x0_11_22_33;
        const Q t221 = c[7] * t22;
        const Q t222 = t54 - t221;
        // real block of 11, multiplier 5
        const V t223 = c[4] * t99;
        const V t224 = t125 - t223;
        const V t225 = c[9] * t95;
        const V t226 = t132 - t225;
        const V t227 = t138 + x44;
        const V t228 = c[7] * t98;
        const V t229 = t145 - t228;
        const Q t230 = shuffled<1, 5, 3, 7>(t217, t219);
        const Q t231 = shuffled<1, 5, 3, 7>(t220, t222);
        const Q t232 = shuffled<0, 1, 4, 5>(t230, t231);
        const P t233 = joined(t224, t226);
        const P t234 = joined(t227, t229);
        const Q t235 = joined(t233, t234);
        // complex block of 5
        const Q t236 = t232 + t235;
        const Q t237 = t232 - t235;
        const Q t238 = shuffled<2, 3, 6, 7>(t230, t231);
        const Q t239 = shuffled<0, 4, 2, 6>(t217, t219);
        const Q t240 = shuffled<0, 4, 2, 6>(t220, t222);
        const Q t241 = shuffled<2, 3, 6, 7>(t239, t240);
        const Q t242 = t238 + t241;
        const Q t243 = t238 - t241;
        const Q t244 = t236 + t242;
        const Q t245 = shuffled<0, 1, 4, 5>(t239, t240);
        const Q t246 = t244 + t245;
        io.pairs(5, 10, t246);
        const Q t247 = c[10] * t236;
        const Q t248 = c[11] * t242;
        const Q t249 = t247 - t248;
        const Q t250 = t249 + t245;
        const Q t251 = c[13] * t237;
        const Q t252 = c[12] * t243;
        const Q t253 = t251 - t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t253);
        const Q t255 = flipped<0, 1, 0, 1>(t254);
        const Q t256 = t250 + t255;
        io.pairs(16, 21, t256);
        const Q t257 = t250 - t255;
        io.pairs(6, 1, negated<0, 1, 0, 1>(t257));
        const Q t258 = c[11] * t236;
        const Q t259 = t245 - t258;
        const Q t260 = c[10] * t242;
        const Q t261 = t259 + t260;
        const Q t262 = c[12] * t237;
        const Q t263 = c[13] * t243;
        const Q t264 = t262 + t263;
        const Q t265 = shuffled<1, 0, 3, 2>(t264);
        const Q t266 = flipped<0, 1, 0, 1>(t265);
        const Q t267 = t261 + t266;
        io.pairs(27, 23, negated<0, 0, 0, 1>(t267));
        const Q t268 = t261 - t266;
        io.pairs(17, 12, negated<0, 1, 0, 1>(t268));
        // real block of 11, multiplier 5
        const Q t269 = c[2] * t23;
        const Q t270 = t60 + t269;
        const Q t271 = c[5] * t22;
        const Q t272 = t67 + t271;
        // real block of 11, multiplier 5
        const V t273 = c[2] * t99;
        const V t274 = t151 + t273;
        const V t275 = c[5] * t98;
        const V t276 = t158 + t275;
        const P t277 = part<0>(t270);
        const P t278 = part<0>(t272);
        const P t279 = shuffled<1, 3>(t277, t278);
        const P t280 = joined(t274, t276);
        // complex block of 5
        const P t281 = t279 + t280;
        const P t282 = shuffled<0, 3>(t279, t280);
        const P t283 = shuffled<0, 3>(t280, t279);
        const P t284 = t282 - t283;
        const P t285 = part<1>(t270);
        const P t286 = part<1>(t272);
        const P t287 = shuffled<1, 3>(t285, t286);
        const P t288 = shuffled<0, 2>(t285, t286);
        const P t289 = t287 + t288;
        const P t290 = shuffled<0, 3>(t287, t288);
        const P t291 = shuffled<0, 3>(t288, t287);
        const P t292 = t290 - t291;
        const P t293 = t281 + t289;
        const P t294 = shuffled<0, 2>(t277, t278);
        const P t295 = t293 + t294;
        io.pair(15, negated<0, 1>(t295));
        const P t296 = c[10] * t281;
        const V t297 = part<0>(t296);
        const P t298 = c[11] * t289;
        const V t299 = part<0>(t298);
        const V t300 = t297 - t299;
        const V t301 = part<0>(t278);
        const V t302 = part<1>(t296);
        const V t303 = t301 + t302;
        const P t304 = shuffled<0, 3>(t294, t298);
        const V t305 = flipped<1>(t303);
        const P t306 = joined(t300, t305);
        const P t307 = t304 + t306;
        const P t308 = c[13] * t284;
        const P t309 = c[12] * t292;
        const P t310 = t308 - t309;
        const P t311 = shuffled<1, 0>(t310);
        const P t312 = flipped<0, 1>(t311);
        const P t313 = t307 + t312;
        io.pair(26, t313);
        const P t314 = t307 - t312;
        io.pair(4, t314);
        const V t315 = part<0>(t304);
        const P t316 = c[11] * t281;
        const V t317 = part<0>(t316);
        const V t318 = t315 - t317;
        const V t319 = part<1>(t316);
        const P t320 = c[10] * t289;
        const V t321 = part<1>(t320);
        const V t322 = t319 - t321;
        const P t323 = joined(t318, t322);
        const P t324 = shuffled<0, 3>(t320, t294);
        const P t325 = flipped<0, 1>(t324);
        const P t326 = t323 + t325;
        const P t327 = c[12] * t284;
        const P t328 = c[13] * t292;
        const P t329 = t327 + t328;
        const P t330 = shuffled<1, 0>(t329);
        const P t331 = flipped<0, 1>(t330);
        const P t332 = t326 + t331;
        io.pair(18, negated<0, 1>(t332));
        const P t333 = t326 - t331;
        io.pair(7, negated<0, 1>(t333));
        // real block of 11, multiplier 5
        const Q t334 = t73 + x0_11_22_33;
        const Q t335 = c[6] * t21;
        const Q t336 = t80 - t335;
        const Q t337 = c[3] * t23;
        const Q t338 = t86 - t337;
        const Q t339 = c[8] * t21;
        const Q t340 = t93 - t339;
        // real block of 11, multiplier 5
        const V t341 = t164 + x44;
        const V t342 = c[6] * t97;
        const V t343 = t171 - t342;
        const V t344 = c[3] * t99;
        const V t345 = t177 - t344;
        const V t346 = c[8] * t97;
        const V t347 = t184 - t346;
        const Q t348 = shuffled<1, 5, 3, 7>(t334, t336);
        const Q t349 = shuffled<1, 5, 3, 7>(t338, t340);
        const Q t350 = shuffled<0, 1, 4, 5>(t348, t349);
        const P t351 = joined(t341, t343);
        const P t352 = joined(t345, t347);
        const Q t353 = joined(t351, t352);
        // complex block of 5
        const Q t354 = t350 + t353;
        const Q t355 = t350 - t353;
        const Q t356 = shuffled<2, 3, 6, 7>(t348, t349);
        const Q t357 = shuffled<0, 4, 2, 6>(t334, t336);
        const Q t358 = shuffled<0, 4, 2, 6>(t338, t340);
        const Q t359 = shuffled<2, 3, 6, 7>(t357, t358);
        const Q t360 = t356 + t359;
        const Q t361 = t356 - t359;
        const Q t362 = t354 + t360;
        const Q t363 = shuffled<0, 1, 4, 5>(t357, t358);
        const Q t364 = t362 + t363;
        io.pairs(20, 25, t364);
        const Q t365 = c[10] * t354;
        const Q t366 = c[11] * t360;
        const Q t367 = t365 - t366;
        const Q t368 = t367 + t363;
        const Q t369 = c[13] * t355;
        const Q t370 = c[12] * t361;
        const Q t371 = t369 - t370;
        const Q t372 = shuffled<1, 0, 3, 2>(t371);
        const Q t373 = flipped<0, 1, 0, 1>(t372);
        const Q t374 = t368 + t373;
        io.pairs(24, 19, negated<0, 1, 0, 1>(t374));
        const Q t375 = t368 - t373;
        io.pairs(9, 14, t375);
        const Q t376 = c[11] * t354;
        const Q t377 = t363 - t376;
        const Q t378 = c[10] * t360;
        const Q t379 = t377 + t378;
        const Q t380 = c[12] * t355;
        const Q t381 = c[13] * t361;
        const Q t382 = t380 + t381;
        const Q t383 = shuffled<1, 0, 3, 2>(t382);
        const Q t384 = flipped<0, 1, 0, 1>(t383);
        const Q t385 = t379 + t384;
        io.pairs(13, 8, negated<0, 1, 0, 1>(t385));
        const Q t386 = t379 - t384;
        io.pairs(2, 3, negated<0, 1, 0, 0>(t386));
    }
};

}  // namespace zulg
