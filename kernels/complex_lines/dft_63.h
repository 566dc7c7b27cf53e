// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 63.
// Complex DFT of 63 points, prime-factor, order 7, 9; two lines of a stage to a register.
// 159 sums, 134 differences, 160 products of registers, which do the 1830 steps of the graph, those with
// `scale` included; 92 shuffles, 27 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<63> {
    static constexpr int steps = 1830;  // with `scale`
    static constexpr double inverseRoot = 0.1259881576697424;  // 1/sqrt(63), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6234898018587335,  // c[2]: cos 2 pi 1/7
        0.2225209339563144,  // c[3]: -cos 2 pi 5/7
        0.9009688679024191,  // c[4]: -cos 2 pi 4/7
        0.9749279121818236,  // c[5]: -sin 2 pi 5/7
        0.4338837391175581,  // c[6]: -sin 2 pi 4/7
        0.7818314824680298,  // c[7]: sin 2 pi 1/7
        0.3420201433256687,  // c[8]: -sin 2 pi 5/9
        0.9396926207859084,  // c[9]: -cos 2 pi 5/9
        0.17364817766693036,  // c[10]: cos 2 pi 7/9
        0.984807753012208,  // c[11]: -sin 2 pi 7/9
        0.766044443118978,  // c[12]: cos 2 pi 1/9
        0.6427876096865394,  // c[13]: sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x9_16 = io.pairs(9, 16);
        const Q x54_61 = io.pairs(54, 61);
        // complex block of 7, multiplier 2
        const Q t0 = x9_16 + x54_61;
        const Q t1 = x9_16 - x54_61;
        const Q x45_52 = io.pairs(45, 52);
        const Q x18_25 = io.pairs(18, 25);
        const Q t2 = x45_52 + x18_25;
        const Q t3 = x45_52 - x18_25;
        const Q t4 = t0 + t2;
        const Q t5 = c[2] * t0;
        const Q t6 = c[3] * t2;
        const Q t7 = t5 - t6;
        const Q x0_7 = io.pairs(0, 7);
        const Q t8 = c[3] * t0;
        const Q t9 = x0_7 - t8;
        const Q t10 = c[4] * t2;
        const Q t11 = t9 - t10;
        const Q t12 = c[5] * t1;
        const Q t13 = c[6] * t3;
        const Q t14 = t12 + t13;
        const Q t15 = c[4] * t0;
        const Q t16 = x0_7 - t15;
        const Q x1_8 = io.pairs(1, 8);
        const Q x55_62 = io.pairs(55, 62);
        // complex block of 7, multiplier 2
        const Q t17 = x1_8 + x55_62;
        const Q t18 = x1_8 - x55_62;
        const Q x10_17 = io.pairs(10, 17);
        const Q x46_53 = io.pairs(46, 53);
        const Q t19 = x10_17 + x46_53;
        const Q t20 = x10_17 - x46_53;
        const Q x37_44 = io.pairs(37, 44);
        const Q x19_26 = io.pairs(19, 26);
        const Q t21 = x37_44 + x19_26;
        const Q t22 = x37_44 - x19_26;
        const Q t23 = t21 + t19;
        const Q t24 = t23 + t17;
        const Q t25 = c[2] * t21;
        const Q t26 = c[3] * t19;
        const Q t27 = t25 - t26;
        const Q t28 = c[4] * t17;
        const Q t29 = t27 - t28;
        const Q t30 = c[7] * t22;
        const Q t31 = c[5] * t20;
        const Q t32 = t30 - t31;
        const Q x28_35 = io.pairs(28, 35);
        const Q t33 = c[3] * t21;
        const Q t34 = x28_35 - t33;
        const Q t35 = c[4] * t19;
        const Q t36 = t34 - t35;
        const Q t37 = c[5] * t22;
        const Q t38 = c[6] * t20;
        const Q t39 = t37 + t38;
        const Q t40 = c[7] * t18;
        const Q t41 = t39 + t40;
        const Q t42 = c[4] * t21;
        const Q t43 = x28_35 - t42;
        const Q t44 = c[2] * t19;
        const Q t45 = t43 + t44;
        const Q t46 = c[6] * t22;
        const Q t47 = c[7] * t20;
        const Q t48 = t46 + t47;
        const P x2 = io.pair(2);
        const P x47 = io.pair(47);
        // complex block of 7, multiplier 2
        const P t49 = x2 + x47;
        const P t50 = x2 - x47;
        const P x38 = io.pair(38);
        const P x11 = io.pair(11);
        const P t51 = x38 + x11;
        const P t52 = x38 - x11;
        const P x29 = io.pair(29);
        const P x20 = io.pair(20);
        const P t53 = x29 + x20;
        const P t54 = x29 - x20;
        const P t55 = t49 + t51;
        const P t56 = t55 + t53;
        const P t57 = c[2] * t49;
        const P t58 = c[3] * t51;
        const P t59 = t57 - t58;
        const P t60 = c[4] * t53;
        const P t61 = t59 - t60;
        const P t62 = c[7] * t50;
        const P t63 = c[5] * t52;
        const P t64 = t62 - t63;
        const P x56 = io.pair(56);
        const P t65 = c[3] * t49;
        const P t66 = x56 - t65;
        const P t67 = c[4] * t51;
        const P t68 = t66 - t67;
        const P t69 = c[5] * t50;
        const P t70 = c[6] * t52;
        const P t71 = t69 + t70;
        const P t72 = c[7] * t54;
        const P t73 = t71 + t72;
        const P t74 = c[4] * t49;
        const P t75 = x56 - t74;
        const P t76 = c[2] * t51;
        const P t77 = t75 + t76;
        const P t78 = c[6] * t50;
        const P t79 = c[7] * t52;
        const P t80 = t78 + t79;
        const Q x59_3 = io.pairs(59, 3);
        const Q x32_39 = io.pairs(32, 39);
        // complex block of 7, multiplier 2
        const Q t81 = x59_3 - x32_39;
        const Q t82 = x59_3 + x32_39;
        const Q x23_30 = io.pairs(23, 30);
        const Q x5_12 = io.pairs(5, 12);
        const Q t83 = x23_30 + x5_12;
        const Q t84 = x23_30 - x5_12;
        const Q x50_57 = io.pairs(50, 57);
        const Q x41_48 = io.pairs(41, 48);
        const Q t85 = x50_57 + x41_48;
        const Q t86 = x50_57 - x41_48;
        const Q t87 = t83 + t82;
        const Q t88 = c[2] * t83;
        const Q t89 = c[3] * t82;
        const Q t90 = t88 - t89;
        const Q x14_21 = io.pairs(14, 21);
        const Q t91 = c[3] * t83;
        const Q t92 = x14_21 - t91;
        const Q t93 = c[4] * t82;
        const Q t94 = t92 - t93;
        const Q t95 = c[5] * t84;
        const Q t96 = c[6] * t81;
        const Q t97 = t95 + t96;
        const Q t98 = c[7] * t86;
        const Q t99 = t97 + t98;
        const Q t100 = c[4] * t83;
        const Q t101 = x14_21 - t100;
        const Q x24_31 = io.pairs(24, 31);
        const Q x60_4 = io.pairs(60, 4);
        // complex block of 7, multiplier 2
        const Q t102 = x24_31 + x60_4;
        const Q t103 = x24_31 - x60_4;
        const Q x15_22 = io.pairs(15, 22);
        const Q x6_13 = io.pairs(6, 13);
        const Q t104 = x15_22 + x6_13;
        const Q t105 = x15_22 - x6_13;
        const Q x51_58 = io.pairs(51, 58);
        const Q x33_40 = io.pairs(33, 40);
        const Q t106 = x51_58 + x33_40;
        const Q t107 = x51_58 - x33_40;
        const Q t108 = t106 + t102;
        const Q t109 = t108 + t104;
        const Q t110 = c[2] * t106;
        const Q t111 = c[3] * t102;
        const Q t112 = t110 - t111;
        const Q t113 = c[4] * t104;
        const Q t114 = t112 - t113;
        const Q t115 = c[7] * t107;
        const Q t116 = c[5] * t103;
        const Q t117 = t115 - t116;
        const Q x42_49 = io.pairs(42, 49);
        const Q t118 = c[3] * t106;
        const Q t119 = x42_49 - t118;
        const Q t120 = c[4] * t102;
        const Q t121 = t119 - t120;
        const Q t122 = c[5] * t107;
        const Q t123 = c[6] * t103;
        const Q t124 = t122 + t123;
        const Q t125 = c[7] * t105;
        const Q t126 = t124 + t125;
        const Q t127 = c[4] * t106;
        const Q t128 = x42_49 - t127;
        const Q t129 = c[2] * t102;
        const Q t130 = t128 + t129;
        const Q t131 = c[6] * t107;
        const Q t132 = c[7] * t103;
        const Q t133 = t131 + t132;
        const Q x36_43 = io.pairs(36, 43);
        const Q x27_34 = io.pairs(27, 34);
        // complex block of 7, multiplier 2
        const Q t134 = x36_43 + x27_34;
        const Q t135 = x36_43 - x27_34;
        const Q t136 = t4 + t134;
        const Q t137 = t136 + x0_7;
        const Q t138 = c[4] * t134;
        const Q t139 = t7 - t138;
        const Q t140 = t139 + x0_7;
        const Q t141 = c[7] * t1;
        const Q t142 = c[5] * t3;
        const Q t143 = t141 - t142;
        const Q t144 = c[6] * t135;
        const Q t145 = t143 - t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t145);
        const Q t147 = flipped<0, 1, 0, 1>(t146);
        const Q t148 = t140 + t147;
        const Q t149 = t140 - t147;
        const Q t150 = c[2] * t134;
        const Q t151 = t11 + t150;
        const Q t152 = c[7] * t135;
        const Q t153 = t14 + t152;
        const Q t154 = shuffled<1, 0, 3, 2>(t153);
        const Q t155 = flipped<1, 0, 1, 0>(t154);
        const Q t156 = t151 + t155;
        // complex block of 7, multiplier 2
        const Q t157 = c[2] * t85;
        const Q t158 = t94 + t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t99);
        const Q t160 = flipped<1, 0, 1, 0>(t159);
        const Q t161 = t158 + t160;
        // complex block of 7, multiplier 2
        const Q t162 = c[2] * t17;
        const Q t163 = t36 + t162;
        const Q t164 = shuffled<1, 0, 3, 2>(t41);
        const Q t165 = flipped<1, 0, 1, 0>(t164);
        const Q t166 = t163 + t165;
        // complex block of 7, multiplier 2
        const Q t167 = c[2] * t104;
        const Q t168 = t121 + t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t126);
        const Q t170 = flipped<1, 0, 1, 0>(t169);
        const Q t171 = t168 + t170;
        // complex block of 7, multiplier 2
        const P t172 = c[2] * t53;
        const P t173 = t68 + t172;
        const P t174 = shuffled<1, 0>(t73);
        const P t175 = flipped<1, 0>(t174);
        const P t176 = t173 + t175;
        // complex block of 7, multiplier 2
        const Q t177 = t163 - t165;
        // complex block of 7, multiplier 2
        const Q t178 = t168 - t170;
        // complex block of 7, multiplier 2
        const P t179 = t173 - t175;
        const Q t180 = shuffled<2, 3, 4, 5>(t161, t166);
        // complex block of 3
        const Q t181 = t180 + t171;
        const P t182 = part<1>(t166);
        // complex block of 3
        const P t183 = t182 + t176;
        // complex block of 7, multiplier 2
        const Q t184 = t24 + x28_35;
        // complex block of 7, multiplier 2
        const Q t185 = t109 + x42_49;
        // complex block of 7, multiplier 2
        const P t186 = t56 + x56;
        // complex block of 7, multiplier 2
        const Q t187 = t151 - t155;
        // complex block of 7, multiplier 2
        const Q t188 = t158 - t160;
        const Q t189 = shuffled<0, 1, 4, 5>(t184, t177);
        const Q t190 = shuffled<2, 3, 6, 7>(t185, t178);
        // complex block of 3
        const Q t191 = t189 + t190;
        const Q t192 = t189 - t190;
        const Q t193 = shuffled<2, 3, 6, 7>(t184, t177);
        const Q t194 = joined(t186, t179);
        // complex block of 3
        const Q t195 = t193 + t194;
        const Q t196 = t193 - t194;
        // complex block of 3
        const Q t197 = t180 - t171;
        const Q t198 = t181 + t156;
        const P t199 = part<0>(t161);
        // complex block of 3
        const P t200 = t183 + t199;
        const P t201 = part<1>(t198);
        const V t202 = part<0>(t201);
        const V t203 = part<0>(t200);
        // complex block of 3
        const V t204 = t202 + t203;
        const V t205 = part<1>(t201);
        const V t206 = part<1>(t200);
        const V t207 = t205 + t206;
        // complex block of 7, multiplier 2
        const Q t208 = c[2] * t2;
        const Q t209 = t16 + t208;
        const Q t210 = c[3] * t134;
        const Q t211 = t209 - t210;
        const Q t212 = c[6] * t1;
        const Q t213 = c[7] * t3;
        const Q t214 = t212 + t213;
        const Q t215 = c[5] * t135;
        const Q t216 = t214 - t215;
        const Q t217 = shuffled<1, 0, 3, 2>(t216);
        const Q t218 = flipped<0, 1, 0, 1>(t217);
        const Q t219 = t211 + t218;
        const Q t220 = t211 - t218;
        // complex block of 7, multiplier 2
        const Q t221 = t87 + t85;
        const Q t222 = t221 + x14_21;
        const Q t223 = c[4] * t85;
        const Q t224 = t90 - t223;
        const Q t225 = t224 + x14_21;
        const Q t226 = c[7] * t84;
        const Q t227 = c[5] * t81;
        const Q t228 = t226 - t227;
        const Q t229 = c[6] * t86;
        const Q t230 = t228 - t229;
        const Q t231 = shuffled<1, 0, 3, 2>(t230);
        const Q t232 = flipped<0, 1, 0, 1>(t231);
        const Q t233 = t225 + t232;
        const Q t234 = t225 - t232;
        const Q t235 = c[2] * t82;
        const Q t236 = t101 + t235;
        const Q t237 = c[3] * t85;
        const Q t238 = t236 - t237;
        const Q t239 = c[6] * t84;
        const Q t240 = c[7] * t81;
        const Q t241 = t239 + t240;
        const Q t242 = c[5] * t86;
        const Q t243 = t241 - t242;
        const Q t244 = shuffled<1, 0, 3, 2>(t243);
        const Q t245 = flipped<0, 1, 0, 1>(t244);
        const Q t246 = t238 + t245;
        const Q t247 = t238 - t245;
        // complex block of 7, multiplier 2
        const Q t248 = t29 + x28_35;
        const Q t249 = c[6] * t18;
        const Q t250 = t32 - t249;
        const Q t251 = shuffled<1, 0, 3, 2>(t250);
        const Q t252 = flipped<0, 1, 0, 1>(t251);
        const Q t253 = t248 + t252;
        const Q t254 = t248 - t252;
        const Q t255 = c[3] * t17;
        const Q t256 = t45 - t255;
        const Q t257 = c[5] * t18;
        const Q t258 = t48 - t257;
        const Q t259 = shuffled<1, 0, 3, 2>(t258);
        const Q t260 = flipped<0, 1, 0, 1>(t259);
        const Q t261 = t256 + t260;
        const Q t262 = t256 - t260;
        // complex block of 7, multiplier 2
        const Q t263 = t114 + x42_49;
        const Q t264 = c[6] * t105;
        const Q t265 = t117 - t264;
        const Q t266 = shuffled<1, 0, 3, 2>(t265);
        const Q t267 = flipped<0, 1, 0, 1>(t266);
        const Q t268 = t263 + t267;
        const Q t269 = t263 - t267;
        const Q t270 = c[3] * t104;
        const Q t271 = t130 - t270;
        const Q t272 = c[5] * t105;
        const Q t273 = t133 - t272;
        const Q t274 = shuffled<1, 0, 3, 2>(t273);
        const Q t275 = flipped<0, 1, 0, 1>(t274);
        const Q t276 = t271 + t275;
        const Q t277 = t271 - t275;
        // complex block of 7, multiplier 2
        const P t278 = t61 + x56;
        const P t279 = c[6] * t54;
        const P t280 = t64 - t279;
        const P t281 = shuffled<1, 0>(t280);
        const P t282 = flipped<0, 1>(t281);
        const P t283 = t278 + t282;
        const P t284 = t278 - t282;
        const P t285 = c[3] * t53;
        const P t286 = t77 - t285;
        const P t287 = c[5] * t54;
        const P t288 = t80 - t287;
        const P t289 = shuffled<1, 0>(t288);
        const P t290 = flipped<0, 1>(t289);
        const P t291 = t286 + t290;
        const P t292 = t286 - t290;
        const Q t293 = shuffled<0, 1, 4, 5>(t262, t254);
        const Q t294 = shuffled<2, 3, 6, 7>(t277, t269);
        // complex block of 3
        const Q t295 = t293 + t294;
        const Q t296 = t293 - t294;
        const Q t297 = shuffled<2, 3, 6, 7>(t262, t254);
        const Q t298 = joined(t292, t284);
        // complex block of 3
        const Q t299 = t297 + t298;
        const Q t300 = t297 - t298;
        const Q t301 = shuffled<0, 1, 4, 5>(t253, t261);
        const Q t302 = shuffled<2, 3, 6, 7>(t268, t276);
        // complex block of 3
        const Q t303 = t301 + t302;
        const Q t304 = t301 - t302;
        const Q t305 = shuffled<2, 3, 6, 7>(t253, t261);
        const Q t306 = joined(t283, t291);
        // complex block of 3
        const Q t307 = t305 + t306;
        const Q t308 = t305 - t306;
        const Q t309 = shuffled<2, 3, 6, 7>(t222, t188);
        const Q t310 = shuffled<0, 1, 4, 5>(t185, t178);
        // complex block of 3
        const Q t311 = t309 + t310;
        const Q t312 = shuffled<0, 1, 4, 5>(t137, t187);
        const Q t313 = t311 + t312;
        const Q t314 = c[0] * t311;
        const Q t315 = t312 - t314;
        const Q t316 = t309 - t310;
        const Q t317 = shuffled<2, 3, 6, 7>(t137, t187);
        // complex block of 3
        const Q t318 = t191 + t317;
        const Q t319 = shuffled<0, 1, 4, 5>(t222, t188);
        // complex block of 3
        const Q t320 = t195 + t319;
        // complex block of 3
        const Q t321 = t318 + t320;
        const Q t322 = t318 - t320;
        // complex block of 3
        const Q t323 = c[0] * t191;
        const Q t324 = t317 - t323;
        const Q t325 = Q(-c[1], c[1], -c[1], c[1]) * t192;
        const Q t326 = shuffled<1, 0, 3, 2>(t325);
        const Q t327 = t324 + t326;
        const Q t328 = t324 - t326;
        // complex block of 9, multiplier 7
        const Q t329 = c[10] * t327;
        const Q t330 = shuffled<1, 0, 3, 2>(t327);
        const Q t331 = Q(-c[11], c[11], -c[11], c[11]) * t330;
        const Q t332 = t329 + t331;
        const Q t333 = shuffled<1, 0, 3, 2>(t328);
        const Q t334 = c[8] * t333;
        const Q t335 = Q(c[9], -c[9], c[9], -c[9]) * t328;
        const Q t336 = t334 + t335;
        // complex block of 3
        const Q t337 = c[0] * t195;
        const Q t338 = t319 - t337;
        const Q t339 = Q(-c[1], c[1], -c[1], c[1]) * t196;
        const Q t340 = shuffled<1, 0, 3, 2>(t339);
        const Q t341 = t338 + t340;
        const Q t342 = t338 - t340;
        const Q t343 = shuffled<1, 0, 3, 2>(t341);
        // complex block of 9, multiplier 7
        const Q t344 = c[8] * t343;
        const Q t345 = Q(c[9], -c[9], c[9], -c[9]) * t341;
        const Q t346 = t344 + t345;
        const Q t347 = c[12] * t342;
        const Q t348 = shuffled<1, 0, 3, 2>(t342);
        const Q t349 = Q(c[13], -c[13], c[13], -c[13]) * t348;
        const Q t350 = t347 + t349;
        // complex block of 3
        const Q t351 = Q(-c[1], c[1], -c[1], c[1]) * t316;
        const Q t352 = shuffled<1, 0, 3, 2>(t351);
        const Q t353 = t315 + t352;
        const Q t354 = flipped<1, 0, 1, 0>(t346);
        // complex block of 3
        const Q t355 = t332 + t354;
        const Q t356 = t332 - t354;
        const Q t357 = t355 + t353;
        io.pairs(7, 16, t357);
        const Q t358 = c[0] * t355;
        const Q t359 = t353 - t358;
        const Q t360 = Q(-c[1], c[1], -c[1], c[1]) * t356;
        const Q t361 = shuffled<1, 0, 3, 2>(t360);
        const Q t362 = t359 + t361;
        io.pairs(28, 37, t362);
        const Q t363 = t359 - t361;
        io.pairs(49, 58, t363);
        // complex block of 3
        const Q t364 = t315 - t352;
        const Q t365 = flipped<1, 0, 1, 0>(t336);
        // complex block of 3
        const Q t366 = t365 + t350;
        const Q t367 = flipped<0, 1, 0, 1>(t350);
        const Q t368 = t336 + t367;
        const Q t369 = t366 + t364;
        io.pairs(14, 23, t369);
        const Q t370 = c[0] * t366;
        const Q t371 = t364 - t370;
        const Q t372 = c[1] * t368;
        const Q t373 = shuffled<1, 0, 3, 2>(t372);
        const Q t374 = t371 + t373;
        io.pairs(35, 44, t374);
        const Q t375 = t371 - t373;
        io.pairs(56, 2, t375);
        // complex block of 3
        const Q t376 = t321 + t313;
        io.pairs(0, 9, t376);
        const Q t377 = c[0] * t321;
        const Q t378 = t313 - t377;
        const Q t379 = Q(-c[1], c[1], -c[1], c[1]) * t322;
        const Q t380 = shuffled<1, 0, 3, 2>(t379);
        const Q t381 = t378 + t380;
        io.pairs(21, 30, t381);
        const Q t382 = t378 - t380;
        io.pairs(42, 51, t382);
        const Q t383 = shuffled<2, 3, 6, 7>(t247, t234);
        const Q t384 = shuffled<0, 1, 4, 5>(t277, t269);
        // complex block of 3
        const Q t385 = t383 + t384;
        const Q t386 = shuffled<0, 1, 4, 5>(t220, t149);
        const Q t387 = t385 + t386;
        const Q t388 = c[0] * t385;
        const Q t389 = t386 - t388;
        const Q t390 = t383 - t384;
        const Q t391 = shuffled<2, 3, 6, 7>(t220, t149);
        // complex block of 3
        const Q t392 = t295 + t391;
        const Q t393 = shuffled<0, 1, 4, 5>(t247, t234);
        // complex block of 3
        const Q t394 = t299 + t393;
        // complex block of 3
        const Q t395 = t392 + t394;
        const Q t396 = t392 - t394;
        // complex block of 3
        const Q t397 = c[0] * t295;
        const Q t398 = t391 - t397;
        const Q t399 = Q(-c[1], c[1], -c[1], c[1]) * t296;
        const Q t400 = shuffled<1, 0, 3, 2>(t399);
        const Q t401 = t398 + t400;
        const Q t402 = t398 - t400;
        // complex block of 9, multiplier 7
        const Q t403 = c[10] * t401;
        const Q t404 = shuffled<1, 0, 3, 2>(t401);
        const Q t405 = Q(-c[11], c[11], -c[11], c[11]) * t404;
        const Q t406 = t403 + t405;
        const Q t407 = shuffled<1, 0, 3, 2>(t402);
        const Q t408 = c[8] * t407;
        const Q t409 = Q(c[9], -c[9], c[9], -c[9]) * t402;
        const Q t410 = t408 + t409;
        // complex block of 3
        const Q t411 = c[0] * t299;
        const Q t412 = t393 - t411;
        const Q t413 = Q(-c[1], c[1], -c[1], c[1]) * t300;
        const Q t414 = shuffled<1, 0, 3, 2>(t413);
        const Q t415 = t412 + t414;
        const Q t416 = t412 - t414;
        const Q t417 = shuffled<1, 0, 3, 2>(t415);
        // complex block of 9, multiplier 7
        const Q t418 = c[8] * t417;
        const Q t419 = Q(c[9], -c[9], c[9], -c[9]) * t415;
        const Q t420 = t418 + t419;
        const Q t421 = c[12] * t416;
        const Q t422 = shuffled<1, 0, 3, 2>(t416);
        const Q t423 = Q(c[13], -c[13], c[13], -c[13]) * t422;
        const Q t424 = t421 + t423;
        // complex block of 3
        const Q t425 = Q(-c[1], c[1], -c[1], c[1]) * t390;
        const Q t426 = shuffled<1, 0, 3, 2>(t425);
        const Q t427 = t389 + t426;
        const Q t428 = flipped<1, 0, 1, 0>(t420);
        // complex block of 3
        const Q t429 = t406 + t428;
        const Q t430 = t406 - t428;
        const Q t431 = t429 + t427;
        io.pairs(25, 34, t431);
        const Q t432 = c[0] * t429;
        const Q t433 = t427 - t432;
        const Q t434 = Q(-c[1], c[1], -c[1], c[1]) * t430;
        const Q t435 = shuffled<1, 0, 3, 2>(t434);
        const Q t436 = t433 + t435;
        io.pairs(46, 55, t436);
        const Q t437 = t433 - t435;
        io.pairs(4, 13, t437);
        // complex block of 3
        const Q t438 = t389 - t426;
        const Q t439 = flipped<1, 0, 1, 0>(t410);
        // complex block of 3
        const Q t440 = t439 + t424;
        const Q t441 = flipped<0, 1, 0, 1>(t424);
        const Q t442 = t410 + t441;
        const Q t443 = t440 + t438;
        io.pairs(32, 41, t443);
        const Q t444 = c[0] * t440;
        const Q t445 = t438 - t444;
        const Q t446 = c[1] * t442;
        const Q t447 = shuffled<1, 0, 3, 2>(t446);
        const Q t448 = t445 + t447;
        io.pairs(53, 62, t448);
        const Q t449 = t445 - t447;
        io.pairs(11, 20, t449);
        // complex block of 3
        const Q t450 = t395 + t387;
        io.pairs(18, 27, t450);
        const Q t451 = c[0] * t395;
        const Q t452 = t387 - t451;
        const Q t453 = Q(-c[1], c[1], -c[1], c[1]) * t396;
        const Q t454 = shuffled<1, 0, 3, 2>(t453);
        const Q t455 = t452 + t454;
        io.pairs(39, 48, t455);
        const Q t456 = t452 - t454;
        io.pairs(60, 6, t456);
        const Q t457 = shuffled<2, 3, 6, 7>(t233, t246);
        const Q t458 = shuffled<0, 1, 4, 5>(t268, t276);
        // complex block of 3
        const Q t459 = t457 + t458;
        const Q t460 = shuffled<0, 1, 4, 5>(t148, t219);
        const Q t461 = t459 + t460;
        const Q t462 = c[0] * t459;
        const Q t463 = t460 - t462;
        const Q t464 = t457 - t458;
        const Q t465 = shuffled<2, 3, 6, 7>(t148, t219);
        // complex block of 3
        const Q t466 = t303 + t465;
        const Q t467 = shuffled<0, 1, 4, 5>(t233, t246);
        // complex block of 3
        const Q t468 = t307 + t467;
        // complex block of 3
        const Q t469 = t466 + t468;
        const Q t470 = t466 - t468;
        // complex block of 3
        const Q t471 = c[0] * t303;
        const Q t472 = t465 - t471;
        const Q t473 = Q(-c[1], c[1], -c[1], c[1]) * t304;
        const Q t474 = shuffled<1, 0, 3, 2>(t473);
        const Q t475 = t472 + t474;
        const Q t476 = t472 - t474;
        // complex block of 9, multiplier 7
        const Q t477 = c[10] * t475;
        const Q t478 = shuffled<1, 0, 3, 2>(t475);
        const Q t479 = Q(-c[11], c[11], -c[11], c[11]) * t478;
        const Q t480 = t477 + t479;
        const Q t481 = shuffled<1, 0, 3, 2>(t476);
        const Q t482 = c[8] * t481;
        const Q t483 = Q(c[9], -c[9], c[9], -c[9]) * t476;
        const Q t484 = t482 + t483;
        // complex block of 3
        const Q t485 = c[0] * t307;
        const Q t486 = t467 - t485;
        const Q t487 = Q(-c[1], c[1], -c[1], c[1]) * t308;
        const Q t488 = shuffled<1, 0, 3, 2>(t487);
        const Q t489 = t486 + t488;
        const Q t490 = t486 - t488;
        const Q t491 = shuffled<1, 0, 3, 2>(t489);
        // complex block of 9, multiplier 7
        const Q t492 = c[8] * t491;
        const Q t493 = Q(c[9], -c[9], c[9], -c[9]) * t489;
        const Q t494 = t492 + t493;
        const Q t495 = c[12] * t490;
        const Q t496 = shuffled<1, 0, 3, 2>(t490);
        const Q t497 = Q(c[13], -c[13], c[13], -c[13]) * t496;
        const Q t498 = t495 + t497;
        // complex block of 3
        const Q t499 = Q(-c[1], c[1], -c[1], c[1]) * t464;
        const Q t500 = shuffled<1, 0, 3, 2>(t499);
        const Q t501 = t463 + t500;
        const Q t502 = flipped<1, 0, 1, 0>(t494);
        // complex block of 3
        const Q t503 = t480 + t502;
        const Q t504 = t480 - t502;
        const Q t505 = t503 + t501;
        io.pairs(43, 52, t505);
        const Q t506 = c[0] * t503;
        const Q t507 = t501 - t506;
        const Q t508 = Q(-c[1], c[1], -c[1], c[1]) * t504;
        const Q t509 = shuffled<1, 0, 3, 2>(t508);
        const Q t510 = t507 + t509;
        io.pairs(1, 10, t510);
        const Q t511 = t507 - t509;
        io.pairs(22, 31, t511);
        // complex block of 3
        const Q t512 = t463 - t500;
        const Q t513 = flipped<1, 0, 1, 0>(t484);
        // complex block of 3
        const Q t514 = t513 + t498;
        const Q t515 = flipped<0, 1, 0, 1>(t498);
        const Q t516 = t484 + t515;
        const Q t517 = t514 + t512;
        io.pairs(50, 59, t517);
        const Q t518 = c[0] * t514;
        const Q t519 = t512 - t518;
        const Q t520 = c[1] * t516;
        const Q t521 = shuffled<1, 0, 3, 2>(t520);
        const Q t522 = t519 + t521;
        io.pairs(8, 17, t522);
        const Q t523 = t519 - t521;
        io.pairs(29, 38, t523);
        // complex block of 3
        const Q t524 = t469 + t461;
        io.pairs(36, 45, t524);
        const Q t525 = c[0] * t469;
        const Q t526 = t461 - t525;
        const Q t527 = Q(-c[1], c[1], -c[1], c[1]) * t470;
        const Q t528 = shuffled<1, 0, 3, 2>(t527);
        const Q t529 = t526 + t528;
        io.pairs(57, 3, t529);
        const Q t530 = t526 - t528;
        io.pairs(15, 24, t530);
        // complex block of 3
        const Q t531 = c[0] * t181;
        const Q t532 = t156 - t531;
        const Q t533 = Q(-c[1], c[1], -c[1], c[1]) * t197;
        const Q t534 = shuffled<1, 0, 3, 2>(t533);
        const Q t535 = t532 + t534;
        const Q t536 = t532 - t534;
        const Q t537 = shuffled<2, 3, 6, 7>(t166, t198);
        const Q t538 = joined(t176, t200);
        // complex block of 3
        const Q t539 = t537 - t538;
        const Q t540 = shuffled<0, 1, 4, 5>(t161, t198);
        const P t541 = joined(t204, t207);
        const Q t542 = joined(t183, t541);
        const Q t543 = c[0] * t542;
        const Q t544 = t540 - t543;
        const Q t545 = Q(-c[1], c[1], -c[1], c[1]) * t539;
        const Q t546 = shuffled<1, 0, 3, 2>(t545);
        const Q t547 = t544 + t546;
        const P t548 = part<1>(t547);
        io.pair(12, t548);
        const Q t549 = t544 - t546;
        const P t550 = part<1>(t549);
        io.pair(33, t550);
        const Q t551 = shuffled<0, 1, 6, 7>(t547, t536);
        const Q t552 = shuffled<1, 0, 3, 2>(t551);
        // complex block of 9, multiplier 7
        const Q t553 = c[8] * t552;
        const Q t554 = Q(c[9], -c[9], c[9], -c[9]) * t551;
        const Q t555 = t553 + t554;
        const Q t556 = shuffled<2, 3, 4, 5>(t535, t549);
        const Q t557 = Q(c[10], c[10], c[12], c[12]) * t556;
        const Q t558 = shuffled<1, 0, 3, 2>(t556);
        const Q t559 = Q(-c[11], c[11], c[13], -c[13]) * t558;
        const Q t560 = t557 + t559;
        const Q t561 = flipped<1, 0, 1, 0>(t555);
        // complex block of 3
        const Q t562 = t561 + t560;
        const Q t563 = flipped<1, 1, 1, 0>(t561);
        const Q t564 = flipped<0, 0, 0, 1>(t560);
        const Q t565 = t563 + t564;
        const Q t566 = shuffled<0, 1, 4, 5>(t535, t536);
        const Q t567 = t562 + t566;
        io.pairs(61, 5, t567);
        const Q t568 = c[0] * t562;
        const Q t569 = t566 - t568;
        const Q t570 = Q(-c[1], c[1], c[1], c[1]) * t565;
        const Q t571 = shuffled<1, 0, 3, 2>(t570);
        const Q t572 = t569 + t571;
        io.pairs(19, 26, t572);
        const Q t573 = t569 - t571;
        io.pairs(40, 47, t573);
        const P t574 = part<0>(t198);
        // complex block of 3
        const P t575 = t541 + t574;
        io.pair(54, t575);
    }
};

}  // namespace zulg
