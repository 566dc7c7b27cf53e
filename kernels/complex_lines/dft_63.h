// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 63.
// Complex DFT of 63 points, prime-factor, order 7, 9; two lines of a stage to a register.
// 159 sums, 134 differences, 160 products of registers, which do the 1830 steps of the graph, those with
// `scale` included; 122 shuffles, 27 changes of sign.
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
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.9749279121818236,  // c[6]: -sin 2 pi 5/7
        0.4338837391175581,  // c[7]: -sin 2 pi 4/7
        0.3420201433256687,  // c[8]: -sin 2 pi 5/9
        0.9396926207859084,  // c[9]: -cos 2 pi 5/9
        0.17364817766693036,  // c[10]: cos 2 pi 7/9
        0.766044443118978,  // c[11]: cos 2 pi 1/9
        0.984807753012208,  // c[12]: -sin 2 pi 7/9
        0.6427876096865394,  // c[13]: sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x36_1 = io.pairs(36, 1);
        const Q x27_55 = io.pairs(27, 55);
        // complex block of 7, multiplier 2
        const Q t0 = x36_1 + x27_55;
        const Q t1 = x36_1 - x27_55;
        const Q x9_37 = io.pairs(9, 37);
        const Q x54_19 = io.pairs(54, 19);
        const Q t2 = x9_37 + x54_19;
        const Q t3 = x9_37 - x54_19;
        const Q x45_10 = io.pairs(45, 10);
        const Q x18_46 = io.pairs(18, 46);
        const Q t4 = x45_10 + x18_46;
        const Q t5 = x45_10 - x18_46;
        const Q t6 = t2 + t4;
        const Q t7 = t6 + t0;
        const Q t8 = c[2] * t2;
        const Q t9 = c[3] * t4;
        const Q t10 = t8 - t9;
        const Q t11 = c[4] * t0;
        const Q t12 = t10 - t11;
        const Q t13 = c[5] * t3;
        const Q t14 = c[6] * t5;
        const Q t15 = t13 - t14;
        const Q t16 = c[7] * t1;
        const Q t17 = t15 - t16;
        const Q x0_28 = io.pairs(0, 28);
        const Q t18 = c[3] * t2;
        const Q t19 = x0_28 - t18;
        const Q t20 = c[4] * t4;
        const Q t21 = t19 - t20;
        const Q t22 = c[6] * t3;
        const Q t23 = c[7] * t5;
        const Q t24 = t22 + t23;
        const Q t25 = c[4] * t2;
        const Q t26 = x0_28 - t25;
        const Q t27 = c[2] * t4;
        const Q t28 = t26 + t27;
        const Q t29 = c[7] * t3;
        const Q t30 = c[5] * t5;
        const Q t31 = t29 + t30;
        const P x2 = io.pair(2);
        const P x47 = io.pair(47);
        // complex block of 7, multiplier 2
        const P t32 = x2 + x47;
        const P t33 = x2 - x47;
        const P x38 = io.pair(38);
        const P x11 = io.pair(11);
        const P t34 = x38 + x11;
        const P t35 = x38 - x11;
        const P x29 = io.pair(29);
        const P x20 = io.pair(20);
        const P t36 = x29 + x20;
        const P t37 = x29 - x20;
        const P t38 = t32 + t34;
        const P t39 = t38 + t36;
        const P t40 = c[2] * t32;
        const P t41 = c[3] * t34;
        const P t42 = t40 - t41;
        const P t43 = c[4] * t36;
        const P t44 = t42 - t43;
        const P t45 = c[5] * t33;
        const P t46 = c[6] * t35;
        const P t47 = t45 - t46;
        const P t48 = c[7] * t37;
        const P t49 = t47 - t48;
        const P x56 = io.pair(56);
        const P t50 = c[3] * t32;
        const P t51 = x56 - t50;
        const P t52 = c[4] * t34;
        const P t53 = t51 - t52;
        const P t54 = c[6] * t33;
        const P t55 = c[7] * t35;
        const P t56 = t54 + t55;
        const P t57 = c[4] * t32;
        const P t58 = x56 - t57;
        const P t59 = c[2] * t34;
        const P t60 = t58 + t59;
        const P t61 = c[7] * t33;
        const P t62 = c[5] * t35;
        const P t63 = t61 + t62;
        const Q x3_31 = io.pairs(3, 31);
        const Q x39_4 = io.pairs(39, 4);
        // complex block of 7, multiplier 2
        const Q t64 = x3_31 + x39_4;
        const Q t65 = x3_31 - x39_4;
        const Q x30_58 = io.pairs(30, 58);
        const Q x12_40 = io.pairs(12, 40);
        const Q t66 = x30_58 + x12_40;
        const Q t67 = x30_58 - x12_40;
        const Q x57_22 = io.pairs(57, 22);
        const Q x48_13 = io.pairs(48, 13);
        const Q t68 = x57_22 + x48_13;
        const Q t69 = x57_22 - x48_13;
        const Q t70 = t66 + t64;
        const Q t71 = t70 + t68;
        const Q t72 = c[2] * t66;
        const Q t73 = c[3] * t64;
        const Q t74 = t72 - t73;
        const Q t75 = c[4] * t68;
        const Q t76 = t74 - t75;
        const Q t77 = c[5] * t67;
        const Q t78 = c[6] * t65;
        const Q t79 = t77 - t78;
        const Q t80 = c[7] * t69;
        const Q t81 = t79 - t80;
        const Q x21_49 = io.pairs(21, 49);
        const Q t82 = c[3] * t66;
        const Q t83 = x21_49 - t82;
        const Q t84 = c[4] * t64;
        const Q t85 = t83 - t84;
        const Q t86 = c[6] * t67;
        const Q t87 = c[7] * t65;
        const Q t88 = t86 + t87;
        const Q t89 = c[4] * t66;
        const Q t90 = x21_49 - t89;
        const Q t91 = c[2] * t64;
        const Q t92 = t90 + t91;
        const Q t93 = c[7] * t67;
        const Q t94 = c[5] * t65;
        const Q t95 = t93 + t94;
        const Q x23_51 = io.pairs(23, 51);
        const Q x5_33 = io.pairs(5, 33);
        // complex block of 7, multiplier 2
        const Q t96 = x23_51 + x5_33;
        const Q t97 = x23_51 - x5_33;
        const Q x50_15 = io.pairs(50, 15);
        const Q x41_6 = io.pairs(41, 6);
        const Q t98 = x50_15 + x41_6;
        const Q t99 = x50_15 - x41_6;
        const Q x59_24 = io.pairs(59, 24);
        const Q x32_60 = io.pairs(32, 60);
        const Q t100 = x59_24 + x32_60;
        const Q t101 = x59_24 - x32_60;
        const Q t102 = t96 + t100;
        const Q t103 = c[2] * t96;
        const Q t104 = c[3] * t100;
        const Q t105 = t103 - t104;
        const Q t106 = c[4] * t98;
        const Q t107 = t105 - t106;
        const Q t108 = c[5] * t97;
        const Q t109 = c[6] * t101;
        const Q t110 = t108 - t109;
        const Q t111 = c[7] * t99;
        const Q t112 = t110 - t111;
        const Q x14_42 = io.pairs(14, 42);
        const Q t113 = c[3] * t96;
        const Q t114 = x14_42 - t113;
        const Q t115 = c[4] * t96;
        const Q t116 = x14_42 - t115;
        const Q x43_8 = io.pairs(43, 8);
        const Q x34_62 = io.pairs(34, 62);
        // complex block of 7, multiplier 2
        const Q t117 = x43_8 + x34_62;
        const Q t118 = x43_8 - x34_62;
        const Q x16_44 = io.pairs(16, 44);
        const Q x61_26 = io.pairs(61, 26);
        const Q t119 = x16_44 + x61_26;
        const Q t120 = x16_44 - x61_26;
        const Q x52_17 = io.pairs(52, 17);
        const Q x25_53 = io.pairs(25, 53);
        const Q t121 = x52_17 + x25_53;
        const Q t122 = x52_17 - x25_53;
        const Q t123 = t119 + t121;
        const Q t124 = t123 + t117;
        const Q t125 = c[2] * t119;
        const Q t126 = c[3] * t121;
        const Q t127 = t125 - t126;
        const Q t128 = c[4] * t117;
        const Q t129 = t127 - t128;
        const Q t130 = c[5] * t120;
        const Q t131 = c[6] * t122;
        const Q t132 = t130 - t131;
        const Q t133 = c[7] * t118;
        const Q t134 = t132 - t133;
        const Q x7_35 = io.pairs(7, 35);
        const Q t135 = c[3] * t119;
        const Q t136 = x7_35 - t135;
        const Q t137 = c[4] * t121;
        const Q t138 = t136 - t137;
        const Q t139 = c[6] * t120;
        const Q t140 = c[7] * t122;
        const Q t141 = t139 + t140;
        const Q t142 = c[4] * t119;
        const Q t143 = x7_35 - t142;
        const Q t144 = c[2] * t121;
        const Q t145 = t143 + t144;
        const Q t146 = c[7] * t120;
        const Q t147 = c[5] * t122;
        const Q t148 = t146 + t147;
        // complex block of 7, multiplier 2
        const Q t149 = t7 + x0_28;
        const Q t150 = t12 + x0_28;
        const Q t151 = shuffled<1, 0, 3, 2>(t17);
        const Q t152 = flipped<1, 0, 1, 0>(t151);
        const Q t153 = t150 + t152;
        // complex block of 7, multiplier 2
        const Q t154 = t107 + x14_42;
        const Q t155 = shuffled<1, 0, 3, 2>(t112);
        const Q t156 = flipped<1, 0, 1, 0>(t155);
        const Q t157 = t154 + t156;
        // complex block of 7, multiplier 2
        const Q t158 = t76 + x21_49;
        const Q t159 = shuffled<1, 0, 3, 2>(t81);
        const Q t160 = flipped<1, 0, 1, 0>(t159);
        const Q t161 = t158 + t160;
        // complex block of 7, multiplier 2
        const Q t162 = t150 - t152;
        // complex block of 7, multiplier 2
        const Q t163 = t158 - t160;
        const Q t164 = shuffled<2, 3, 6, 7>(t157, t153);
        // complex block of 3
        const Q t165 = t164 + t161;
        // complex block of 7, multiplier 2
        const Q t166 = t124 + x7_35;
        const Q t167 = t129 + x7_35;
        const Q t168 = shuffled<1, 0, 3, 2>(t134);
        const Q t169 = flipped<1, 0, 1, 0>(t168);
        const Q t170 = t167 + t169;
        // complex block of 7, multiplier 2
        const P t171 = t44 + x56;
        const P t172 = shuffled<1, 0>(t49);
        const P t173 = flipped<1, 0>(t172);
        const P t174 = t171 + t173;
        // complex block of 7, multiplier 2
        const Q t175 = t167 - t169;
        // complex block of 7, multiplier 2
        const P t176 = t171 - t173;
        const P t177 = part<1>(t170);
        // complex block of 3
        const P t178 = t177 + t174;
        // complex block of 7, multiplier 2
        const Q t179 = t71 + x21_49;
        // complex block of 7, multiplier 2
        const P t180 = t39 + x56;
        // complex block of 7, multiplier 2
        const Q t181 = t154 - t156;
        const Q t182 = shuffled<0, 1, 6, 7>(t161, t164);
        const Q t183 = shuffled<0, 1, 6, 7>(t164, t161);
        // complex block of 3
        const Q t184 = t182 - t183;
        const Q t185 = shuffled<0, 1, 4, 5>(t153, t170);
        const Q t186 = t165 + t185;
        const P t187 = part<0>(t157);
        // complex block of 3
        const P t188 = t178 + t187;
        const P t189 = part<1>(t186);
        const V t190 = part<0>(t189);
        const V t191 = part<0>(t188);
        // complex block of 3
        const V t192 = t190 + t191;
        const V t193 = part<1>(t189);
        const V t194 = part<1>(t188);
        const V t195 = t193 + t194;
        const Q t196 = shuffled<2, 3, 6, 7>(t149, t162);
        const Q t197 = shuffled<2, 3, 6, 7>(t179, t163);
        // complex block of 3
        const Q t198 = t196 + t197;
        const Q t199 = t196 - t197;
        const Q t200 = shuffled<2, 3, 6, 7>(t166, t175);
        const Q t201 = joined(t180, t176);
        // complex block of 3
        const Q t202 = t200 + t201;
        const Q t203 = t200 - t201;
        // complex block of 7, multiplier 2
        const Q t204 = c[2] * t0;
        const Q t205 = t21 + t204;
        const Q t206 = c[5] * t1;
        const Q t207 = t24 + t206;
        const Q t208 = shuffled<1, 0, 3, 2>(t207);
        const Q t209 = flipped<0, 1, 0, 1>(t208);
        const Q t210 = t205 + t209;
        const Q t211 = t205 - t209;
        const Q t212 = c[3] * t0;
        const Q t213 = t28 - t212;
        const Q t214 = c[6] * t1;
        const Q t215 = t31 - t214;
        const Q t216 = shuffled<1, 0, 3, 2>(t215);
        const Q t217 = flipped<0, 1, 0, 1>(t216);
        const Q t218 = t213 + t217;
        const Q t219 = t213 - t217;
        // complex block of 7, multiplier 2
        const Q t220 = c[2] * t68;
        const Q t221 = t85 + t220;
        const Q t222 = c[5] * t69;
        const Q t223 = t88 + t222;
        const Q t224 = shuffled<1, 0, 3, 2>(t223);
        const Q t225 = flipped<0, 1, 0, 1>(t224);
        const Q t226 = t221 + t225;
        const Q t227 = t221 - t225;
        const Q t228 = c[3] * t68;
        const Q t229 = t92 - t228;
        const Q t230 = c[6] * t69;
        const Q t231 = t95 - t230;
        const Q t232 = shuffled<1, 0, 3, 2>(t231);
        const Q t233 = flipped<0, 1, 0, 1>(t232);
        const Q t234 = t229 + t233;
        const Q t235 = t229 - t233;
        const Q t236 = shuffled<2, 3, 6, 7>(t210, t218);
        const Q t237 = shuffled<2, 3, 6, 7>(t226, t234);
        // complex block of 3
        const Q t238 = t236 + t237;
        const Q t239 = t236 - t237;
        const Q t240 = shuffled<2, 3, 6, 7>(t219, t211);
        const Q t241 = shuffled<2, 3, 6, 7>(t235, t227);
        // complex block of 3
        const Q t242 = t240 + t241;
        const Q t243 = t240 - t241;
        // complex block of 7, multiplier 2
        const Q t244 = c[2] * t117;
        const Q t245 = t138 + t244;
        const Q t246 = c[5] * t118;
        const Q t247 = t141 + t246;
        const Q t248 = shuffled<1, 0, 3, 2>(t247);
        const Q t249 = flipped<0, 1, 0, 1>(t248);
        const Q t250 = t245 + t249;
        const Q t251 = t245 - t249;
        const Q t252 = c[3] * t117;
        const Q t253 = t145 - t252;
        const Q t254 = c[6] * t118;
        const Q t255 = t148 - t254;
        const Q t256 = shuffled<1, 0, 3, 2>(t255);
        const Q t257 = flipped<0, 1, 0, 1>(t256);
        const Q t258 = t253 + t257;
        const Q t259 = t253 - t257;
        // complex block of 7, multiplier 2
        const P t260 = c[2] * t36;
        const P t261 = t53 + t260;
        const P t262 = c[5] * t37;
        const P t263 = t56 + t262;
        const P t264 = shuffled<1, 0>(t263);
        const P t265 = flipped<0, 1>(t264);
        const P t266 = t261 + t265;
        const P t267 = t261 - t265;
        const P t268 = c[3] * t36;
        const P t269 = t60 - t268;
        const P t270 = c[6] * t37;
        const P t271 = t63 - t270;
        const P t272 = shuffled<1, 0>(t271);
        const P t273 = flipped<0, 1>(t272);
        const P t274 = t269 + t273;
        const P t275 = t269 - t273;
        const Q t276 = shuffled<2, 3, 6, 7>(t250, t258);
        const Q t277 = joined(t266, t274);
        // complex block of 3
        const Q t278 = t276 + t277;
        const Q t279 = t276 - t277;
        const Q t280 = shuffled<2, 3, 6, 7>(t259, t251);
        const Q t281 = joined(t275, t267);
        // complex block of 3
        const Q t282 = t280 + t281;
        const Q t283 = t280 - t281;
        // complex block of 7, multiplier 2
        const Q t284 = t102 + t98;
        const Q t285 = t284 + x14_42;
        const Q t286 = c[4] * t100;
        const Q t287 = t114 - t286;
        const Q t288 = c[2] * t98;
        const Q t289 = t287 + t288;
        const Q t290 = c[6] * t97;
        const Q t291 = c[7] * t101;
        const Q t292 = t290 + t291;
        const Q t293 = c[5] * t99;
        const Q t294 = t292 + t293;
        const Q t295 = shuffled<1, 0, 3, 2>(t294);
        const Q t296 = flipped<0, 1, 0, 1>(t295);
        const Q t297 = t289 + t296;
        const Q t298 = t289 - t296;
        const Q t299 = c[2] * t100;
        const Q t300 = t116 + t299;
        const Q t301 = c[3] * t98;
        const Q t302 = t300 - t301;
        const Q t303 = c[7] * t97;
        const Q t304 = c[5] * t101;
        const Q t305 = t303 + t304;
        const Q t306 = c[6] * t99;
        const Q t307 = t305 - t306;
        const Q t308 = shuffled<1, 0, 3, 2>(t307);
        const Q t309 = flipped<0, 1, 0, 1>(t308);
        const Q t310 = t302 + t309;
        const Q t311 = t302 - t309;
        // complex block of 3
        const Q t312 = c[0] * t165;
        const Q t313 = t185 - t312;
        const Q t314 = Q(-c[1], c[1], -c[1], c[1]) * t184;
        const Q t315 = shuffled<1, 0, 3, 2>(t314);
        const Q t316 = t313 + t315;
        const Q t317 = t313 - t315;
        const Q t318 = shuffled<2, 3, 6, 7>(t170, t186);
        const Q t319 = joined(t174, t188);
        // complex block of 3
        const Q t320 = t318 - t319;
        const Q t321 = shuffled<0, 1, 4, 5>(t157, t186);
        const P t322 = joined(t192, t195);
        const Q t323 = joined(t178, t322);
        const Q t324 = c[0] * t323;
        const Q t325 = t321 - t324;
        const Q t326 = Q(-c[1], c[1], -c[1], c[1]) * t320;
        const Q t327 = shuffled<1, 0, 3, 2>(t326);
        const Q t328 = t325 + t327;
        const P t329 = part<1>(t328);
        io.pair(48, t329);
        const Q t330 = t325 - t327;
        const P t331 = part<1>(t330);
        io.pair(6, t331);
        const Q t332 = shuffled<0, 1, 6, 7>(t328, t317);
        const Q t333 = shuffled<1, 0, 3, 2>(t332);
        // complex block of 9, multiplier 7
        const Q t334 = c[8] * t333;
        const Q t335 = Q(c[9], -c[9], c[9], -c[9]) * t332;
        const Q t336 = t334 + t335;
        const Q t337 = shuffled<2, 3, 4, 5>(t316, t330);
        const Q t338 = Q(c[10], c[10], c[11], c[11]) * t337;
        const Q t339 = shuffled<1, 0, 3, 2>(t337);
        const Q t340 = Q(-c[12], c[12], c[13], -c[13]) * t339;
        const Q t341 = t338 + t340;
        const Q t342 = flipped<1, 0, 1, 0>(t336);
        // complex block of 3
        const Q t343 = t342 + t341;
        const Q t344 = flipped<1, 1, 1, 0>(t342);
        const Q t345 = flipped<0, 0, 0, 1>(t341);
        const Q t346 = t344 + t345;
        const Q t347 = shuffled<0, 1, 4, 5>(t316, t317);
        const Q t348 = t343 + t347;
        io.pairs(34, 41, t348);
        const Q t349 = c[0] * t343;
        const Q t350 = t347 - t349;
        const Q t351 = Q(-c[1], c[1], c[1], c[1]) * t346;
        const Q t352 = shuffled<1, 0, 3, 2>(t351);
        const Q t353 = t350 + t352;
        io.pairs(55, 62, t353);
        const Q t354 = t350 - t352;
        io.pairs(13, 20, t354);
        const P t355 = part<0>(t186);
        // complex block of 3
        const P t356 = t322 + t355;
        io.pair(27, t356);
        const Q t357 = shuffled<0, 1, 4, 5>(t179, t163);
        const Q t358 = shuffled<2, 3, 6, 7>(t285, t181);
        // complex block of 3
        const Q t359 = t357 + t358;
        const Q t360 = shuffled<0, 1, 4, 5>(t149, t162);
        const Q t361 = t359 + t360;
        const Q t362 = c[0] * t359;
        const Q t363 = t360 - t362;
        const Q t364 = t357 - t358;
        const Q t365 = shuffled<0, 1, 4, 5>(t166, t175);
        // complex block of 3
        const Q t366 = t198 + t365;
        const Q t367 = shuffled<0, 1, 4, 5>(t285, t181);
        // complex block of 3
        const Q t368 = t202 + t367;
        // complex block of 3
        const Q t369 = t366 + t368;
        const Q t370 = t366 - t368;
        // complex block of 3
        const Q t371 = c[0] * t198;
        const Q t372 = t365 - t371;
        const Q t373 = Q(-c[1], c[1], -c[1], c[1]) * t199;
        const Q t374 = shuffled<1, 0, 3, 2>(t373);
        const Q t375 = t372 + t374;
        const Q t376 = t372 - t374;
        // complex block of 9, multiplier 7
        const Q t377 = c[10] * t375;
        const Q t378 = shuffled<1, 0, 3, 2>(t375);
        const Q t379 = Q(-c[12], c[12], -c[12], c[12]) * t378;
        const Q t380 = t377 + t379;
        const Q t381 = shuffled<1, 0, 3, 2>(t376);
        const Q t382 = c[8] * t381;
        const Q t383 = Q(c[9], -c[9], c[9], -c[9]) * t376;
        const Q t384 = t382 + t383;
        // complex block of 3
        const Q t385 = c[0] * t202;
        const Q t386 = t367 - t385;
        const Q t387 = Q(-c[1], c[1], -c[1], c[1]) * t203;
        const Q t388 = shuffled<1, 0, 3, 2>(t387);
        const Q t389 = t386 + t388;
        const Q t390 = t386 - t388;
        const Q t391 = shuffled<1, 0, 3, 2>(t389);
        // complex block of 9, multiplier 7
        const Q t392 = c[8] * t391;
        const Q t393 = Q(c[9], -c[9], c[9], -c[9]) * t389;
        const Q t394 = t392 + t393;
        const Q t395 = c[11] * t390;
        const Q t396 = shuffled<1, 0, 3, 2>(t390);
        const Q t397 = Q(c[13], -c[13], c[13], -c[13]) * t396;
        const Q t398 = t395 + t397;
        // complex block of 3
        const Q t399 = Q(-c[1], c[1], -c[1], c[1]) * t364;
        const Q t400 = shuffled<1, 0, 3, 2>(t399);
        const Q t401 = t363 + t400;
        const Q t402 = flipped<1, 0, 1, 0>(t394);
        // complex block of 3
        const Q t403 = t380 + t402;
        const Q t404 = t380 - t402;
        const Q t405 = t403 + t401;
        const Q t406 = c[0] * t403;
        const Q t407 = t401 - t406;
        const Q t408 = Q(-c[1], c[1], -c[1], c[1]) * t404;
        const Q t409 = shuffled<1, 0, 3, 2>(t408);
        const Q t410 = t407 + t409;
        const Q t411 = t407 - t409;
        // complex block of 3
        const Q t412 = t363 - t400;
        const Q t413 = flipped<1, 0, 1, 0>(t384);
        // complex block of 3
        const Q t414 = t413 + t398;
        const Q t415 = flipped<0, 1, 0, 1>(t398);
        const Q t416 = t384 + t415;
        const Q t417 = t414 + t412;
        const Q t418 = shuffled<0, 1, 6, 7>(t411, t417);
        io.pairs(49, 50, t418);
        const Q t419 = c[0] * t414;
        const Q t420 = t412 - t419;
        const Q t421 = c[1] * t416;
        const Q t422 = shuffled<1, 0, 3, 2>(t421);
        const Q t423 = t420 + t422;
        const Q t424 = shuffled<0, 1, 6, 7>(t405, t423);
        io.pairs(7, 8, t424);
        const Q t425 = t420 - t422;
        const Q t426 = shuffled<0, 1, 6, 7>(t410, t425);
        io.pairs(28, 29, t426);
        // complex block of 3
        const Q t427 = t369 + t361;
        const Q t428 = shuffled<0, 1, 6, 7>(t427, t410);
        io.pairs(0, 1, t428);
        const Q t429 = shuffled<0, 1, 6, 7>(t423, t427);
        io.pairs(35, 36, t429);
        const Q t430 = c[0] * t369;
        const Q t431 = t361 - t430;
        const Q t432 = Q(-c[1], c[1], -c[1], c[1]) * t370;
        const Q t433 = shuffled<1, 0, 3, 2>(t432);
        const Q t434 = t431 + t433;
        const Q t435 = shuffled<0, 1, 6, 7>(t434, t411);
        io.pairs(21, 22, t435);
        const Q t436 = shuffled<0, 1, 6, 7>(t425, t434);
        io.pairs(56, 57, t436);
        const Q t437 = t431 - t433;
        const Q t438 = shuffled<0, 1, 6, 7>(t417, t437);
        io.pairs(14, 15, t438);
        const Q t439 = shuffled<0, 1, 6, 7>(t437, t405);
        io.pairs(42, 43, t439);
        const Q t440 = shuffled<0, 1, 4, 5>(t226, t234);
        const Q t441 = shuffled<2, 3, 6, 7>(t297, t310);
        // complex block of 3
        const Q t442 = t440 + t441;
        const Q t443 = shuffled<0, 1, 4, 5>(t210, t218);
        const Q t444 = t442 + t443;
        const Q t445 = c[0] * t442;
        const Q t446 = t443 - t445;
        const Q t447 = t440 - t441;
        const Q t448 = shuffled<0, 1, 4, 5>(t250, t258);
        // complex block of 3
        const Q t449 = t238 + t448;
        const Q t450 = shuffled<0, 1, 4, 5>(t297, t310);
        // complex block of 3
        const Q t451 = t278 + t450;
        // complex block of 3
        const Q t452 = t449 + t451;
        const Q t453 = t449 - t451;
        // complex block of 3
        const Q t454 = c[0] * t238;
        const Q t455 = t448 - t454;
        const Q t456 = Q(-c[1], c[1], -c[1], c[1]) * t239;
        const Q t457 = shuffled<1, 0, 3, 2>(t456);
        const Q t458 = t455 + t457;
        const Q t459 = t455 - t457;
        // complex block of 9, multiplier 7
        const Q t460 = c[10] * t458;
        const Q t461 = shuffled<1, 0, 3, 2>(t458);
        const Q t462 = Q(-c[12], c[12], -c[12], c[12]) * t461;
        const Q t463 = t460 + t462;
        const Q t464 = shuffled<1, 0, 3, 2>(t459);
        const Q t465 = c[8] * t464;
        const Q t466 = Q(c[9], -c[9], c[9], -c[9]) * t459;
        const Q t467 = t465 + t466;
        // complex block of 3
        const Q t468 = c[0] * t278;
        const Q t469 = t450 - t468;
        const Q t470 = Q(-c[1], c[1], -c[1], c[1]) * t279;
        const Q t471 = shuffled<1, 0, 3, 2>(t470);
        const Q t472 = t469 + t471;
        const Q t473 = t469 - t471;
        const Q t474 = shuffled<1, 0, 3, 2>(t472);
        // complex block of 9, multiplier 7
        const Q t475 = c[8] * t474;
        const Q t476 = Q(c[9], -c[9], c[9], -c[9]) * t472;
        const Q t477 = t475 + t476;
        const Q t478 = c[11] * t473;
        const Q t479 = shuffled<1, 0, 3, 2>(t473);
        const Q t480 = Q(c[13], -c[13], c[13], -c[13]) * t479;
        const Q t481 = t478 + t480;
        // complex block of 3
        const Q t482 = Q(-c[1], c[1], -c[1], c[1]) * t447;
        const Q t483 = shuffled<1, 0, 3, 2>(t482);
        const Q t484 = t446 + t483;
        const Q t485 = flipped<1, 0, 1, 0>(t477);
        // complex block of 3
        const Q t486 = t463 + t485;
        const Q t487 = t463 - t485;
        const Q t488 = t486 + t484;
        const Q t489 = c[0] * t486;
        const Q t490 = t484 - t489;
        const Q t491 = Q(-c[1], c[1], -c[1], c[1]) * t487;
        const Q t492 = shuffled<1, 0, 3, 2>(t491);
        const Q t493 = t490 + t492;
        const Q t494 = t490 - t492;
        // complex block of 3
        const Q t495 = t446 - t483;
        const Q t496 = flipped<1, 0, 1, 0>(t467);
        // complex block of 3
        const Q t497 = t496 + t481;
        const Q t498 = flipped<0, 1, 0, 1>(t481);
        const Q t499 = t467 + t498;
        const Q t500 = t497 + t495;
        const Q t501 = shuffled<0, 1, 6, 7>(t494, t500);
        io.pairs(58, 59, t501);
        const Q t502 = c[0] * t497;
        const Q t503 = t495 - t502;
        const Q t504 = c[1] * t499;
        const Q t505 = shuffled<1, 0, 3, 2>(t504);
        const Q t506 = t503 + t505;
        const Q t507 = shuffled<0, 1, 6, 7>(t488, t506);
        io.pairs(16, 17, t507);
        const Q t508 = t503 - t505;
        const Q t509 = shuffled<0, 1, 6, 7>(t493, t508);
        io.pairs(37, 38, t509);
        // complex block of 3
        const Q t510 = t452 + t444;
        const Q t511 = shuffled<0, 1, 6, 7>(t510, t493);
        io.pairs(9, 10, t511);
        const Q t512 = shuffled<0, 1, 6, 7>(t506, t510);
        io.pairs(44, 45, t512);
        const Q t513 = c[0] * t452;
        const Q t514 = t444 - t513;
        const Q t515 = Q(-c[1], c[1], -c[1], c[1]) * t453;
        const Q t516 = shuffled<1, 0, 3, 2>(t515);
        const Q t517 = t514 + t516;
        const Q t518 = shuffled<0, 1, 6, 7>(t508, t517);
        io.pairs(2, 3, t518);
        const Q t519 = shuffled<0, 1, 6, 7>(t517, t494);
        io.pairs(30, 31, t519);
        const Q t520 = t514 - t516;
        const Q t521 = shuffled<0, 1, 6, 7>(t500, t520);
        io.pairs(23, 24, t521);
        const Q t522 = shuffled<0, 1, 6, 7>(t520, t488);
        io.pairs(51, 52, t522);
        const Q t523 = shuffled<0, 1, 4, 5>(t235, t227);
        const Q t524 = shuffled<2, 3, 6, 7>(t311, t298);
        // complex block of 3
        const Q t525 = t523 + t524;
        const Q t526 = shuffled<0, 1, 4, 5>(t219, t211);
        const Q t527 = t525 + t526;
        const Q t528 = c[0] * t525;
        const Q t529 = t526 - t528;
        const Q t530 = t523 - t524;
        const Q t531 = shuffled<0, 1, 4, 5>(t259, t251);
        // complex block of 3
        const Q t532 = t242 + t531;
        const Q t533 = shuffled<0, 1, 4, 5>(t311, t298);
        // complex block of 3
        const Q t534 = t282 + t533;
        // complex block of 3
        const Q t535 = t532 + t534;
        const Q t536 = t532 - t534;
        // complex block of 3
        const Q t537 = c[0] * t242;
        const Q t538 = t531 - t537;
        const Q t539 = Q(-c[1], c[1], -c[1], c[1]) * t243;
        const Q t540 = shuffled<1, 0, 3, 2>(t539);
        const Q t541 = t538 + t540;
        const Q t542 = t538 - t540;
        // complex block of 9, multiplier 7
        const Q t543 = c[10] * t541;
        const Q t544 = shuffled<1, 0, 3, 2>(t541);
        const Q t545 = Q(-c[12], c[12], -c[12], c[12]) * t544;
        const Q t546 = t543 + t545;
        const Q t547 = shuffled<1, 0, 3, 2>(t542);
        const Q t548 = c[8] * t547;
        const Q t549 = Q(c[9], -c[9], c[9], -c[9]) * t542;
        const Q t550 = t548 + t549;
        // complex block of 3
        const Q t551 = c[0] * t282;
        const Q t552 = t533 - t551;
        const Q t553 = Q(-c[1], c[1], -c[1], c[1]) * t283;
        const Q t554 = shuffled<1, 0, 3, 2>(t553);
        const Q t555 = t552 + t554;
        const Q t556 = t552 - t554;
        const Q t557 = shuffled<1, 0, 3, 2>(t555);
        // complex block of 9, multiplier 7
        const Q t558 = c[8] * t557;
        const Q t559 = Q(c[9], -c[9], c[9], -c[9]) * t555;
        const Q t560 = t558 + t559;
        const Q t561 = c[11] * t556;
        const Q t562 = shuffled<1, 0, 3, 2>(t556);
        const Q t563 = Q(c[13], -c[13], c[13], -c[13]) * t562;
        const Q t564 = t561 + t563;
        // complex block of 3
        const Q t565 = Q(-c[1], c[1], -c[1], c[1]) * t530;
        const Q t566 = shuffled<1, 0, 3, 2>(t565);
        const Q t567 = t529 + t566;
        const Q t568 = flipped<1, 0, 1, 0>(t560);
        // complex block of 3
        const Q t569 = t546 + t568;
        const Q t570 = t546 - t568;
        const Q t571 = t569 + t567;
        const Q t572 = c[0] * t569;
        const Q t573 = t567 - t572;
        const Q t574 = Q(-c[1], c[1], -c[1], c[1]) * t570;
        const Q t575 = shuffled<1, 0, 3, 2>(t574);
        const Q t576 = t573 + t575;
        const Q t577 = t573 - t575;
        // complex block of 3
        const Q t578 = t529 - t566;
        const Q t579 = flipped<1, 0, 1, 0>(t550);
        // complex block of 3
        const Q t580 = t579 + t564;
        const Q t581 = flipped<0, 1, 0, 1>(t564);
        const Q t582 = t550 + t581;
        const Q t583 = t580 + t578;
        const Q t584 = shuffled<0, 1, 6, 7>(t577, t583);
        io.pairs(4, 5, t584);
        const Q t585 = c[0] * t580;
        const Q t586 = t578 - t585;
        const Q t587 = c[1] * t582;
        const Q t588 = shuffled<1, 0, 3, 2>(t587);
        const Q t589 = t586 + t588;
        const Q t590 = shuffled<0, 1, 6, 7>(t571, t589);
        io.pairs(25, 26, t590);
        const Q t591 = t586 - t588;
        const Q t592 = shuffled<0, 1, 6, 7>(t576, t591);
        io.pairs(46, 47, t592);
        // complex block of 3
        const Q t593 = t535 + t527;
        const Q t594 = shuffled<0, 1, 6, 7>(t593, t576);
        io.pairs(18, 19, t594);
        const Q t595 = shuffled<0, 1, 6, 7>(t589, t593);
        io.pairs(53, 54, t595);
        const Q t596 = c[0] * t535;
        const Q t597 = t527 - t596;
        const Q t598 = Q(-c[1], c[1], -c[1], c[1]) * t536;
        const Q t599 = shuffled<1, 0, 3, 2>(t598);
        const Q t600 = t597 + t599;
        const Q t601 = shuffled<0, 1, 6, 7>(t591, t600);
        io.pairs(11, 12, t601);
        const Q t602 = shuffled<0, 1, 6, 7>(t600, t577);
        io.pairs(39, 40, t602);
        const Q t603 = t597 - t599;
        const Q t604 = shuffled<0, 1, 6, 7>(t583, t603);
        io.pairs(32, 33, t604);
        const Q t605 = shuffled<0, 1, 6, 7>(t603, t571);
        io.pairs(60, 61, t605);
    }
};

}  // namespace zulg
