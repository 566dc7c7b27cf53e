// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 56.
// Complex DFT of 56 points, prime-factor, order 7, 8; two lines of a stage to a register.
// 113 sums, 98 differences, 79 products of registers, which do the 1272 steps of the graph, those with
// `scale` included; 91 shuffles, 43 changes of sign.
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
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x8_1 = io.pairs(8, 1);
        const Q x48_41 = io.pairs(48, 41);
        // complex block of 7
        const Q t0 = x8_1 + x48_41;
        const Q t1 = x8_1 - x48_41;
        const Q x40_33 = io.pairs(40, 33);
        const Q x16_9 = io.pairs(16, 9);
        const Q t2 = x40_33 + x16_9;
        const Q t3 = x40_33 - x16_9;
        const Q t4 = t0 + t2;
        const Q x32_25 = io.pairs(32, 25);
        const Q x24_17 = io.pairs(24, 17);
        const Q t5 = x32_25 + x24_17;
        const Q t6 = x32_25 - x24_17;
        const Q t7 = t4 + t5;
        const Q x0_49 = io.pairs(0, 49);
        const Q t8 = t7 + x0_49;
        const Q t9 = c[0] * t0;
        const Q t10 = c[1] * t2;
        const Q t11 = t9 - t10;
        const Q t12 = c[2] * t5;
        const Q t13 = t11 - t12;
        const Q t14 = t13 + x0_49;
        const Q t15 = c[3] * t1;
        const Q t16 = c[4] * t3;
        const Q t17 = t15 - t16;
        const Q t18 = c[5] * t6;
        const Q t19 = t17 - t18;
        const Q t20 = c[1] * t0;
        const Q t21 = x0_49 - t20;
        const Q t22 = c[2] * t2;
        const Q t23 = t21 - t22;
        const Q t24 = c[0] * t5;
        const Q t25 = t23 + t24;
        const Q t26 = c[4] * t1;
        const Q t27 = c[5] * t3;
        const Q t28 = t26 + t27;
        const Q t29 = c[3] * t6;
        const Q t30 = t28 + t29;
        const Q t31 = c[2] * t0;
        const Q t32 = x0_49 - t31;
        const Q t33 = c[0] * t2;
        const Q t34 = t32 + t33;
        const Q t35 = c[1] * t5;
        const Q t36 = t34 - t35;
        const Q t37 = c[5] * t1;
        const Q t38 = c[3] * t3;
        const Q t39 = t37 + t38;
        const Q t40 = c[4] * t6;
        const Q t41 = t39 - t40;
        const Q x26_19 = io.pairs(26, 19);
        const Q x2_51 = io.pairs(2, 51);
        // complex block of 7
        const Q t42 = x26_19 + x2_51;
        const Q t43 = x26_19 - x2_51;
        const Q x50_43 = io.pairs(50, 43);
        const Q x34_27 = io.pairs(34, 27);
        const Q t44 = x50_43 + x34_27;
        const Q t45 = x50_43 - x34_27;
        const Q t46 = t44 + t42;
        const Q x18_11 = io.pairs(18, 11);
        const Q x10_3 = io.pairs(10, 3);
        const Q t47 = x18_11 + x10_3;
        const Q t48 = x18_11 - x10_3;
        const Q t49 = t46 + t47;
        const Q x42_35 = io.pairs(42, 35);
        const Q t50 = t49 + x42_35;
        const Q t51 = c[0] * t44;
        const Q t52 = c[1] * t42;
        const Q t53 = t51 - t52;
        const Q t54 = c[2] * t47;
        const Q t55 = t53 - t54;
        const Q t56 = t55 + x42_35;
        const Q t57 = c[3] * t45;
        const Q t58 = c[4] * t43;
        const Q t59 = t57 - t58;
        const Q t60 = c[5] * t48;
        const Q t61 = t59 - t60;
        const Q t62 = c[1] * t44;
        const Q t63 = x42_35 - t62;
        const Q t64 = c[2] * t42;
        const Q t65 = t63 - t64;
        const Q t66 = c[0] * t47;
        const Q t67 = t65 + t66;
        const Q t68 = c[4] * t45;
        const Q t69 = c[5] * t43;
        const Q t70 = t68 + t69;
        const Q t71 = c[3] * t48;
        const Q t72 = t70 + t71;
        const Q t73 = c[2] * t44;
        const Q t74 = x42_35 - t73;
        const Q t75 = c[0] * t42;
        const Q t76 = t74 + t75;
        const Q t77 = c[1] * t47;
        const Q t78 = t76 - t77;
        const Q t79 = c[5] * t45;
        const Q t80 = c[3] * t43;
        const Q t81 = t79 + t80;
        const Q t82 = c[4] * t48;
        const Q t83 = t81 - t82;
        const Q x4_53 = io.pairs(4, 53);
        const Q x52_45 = io.pairs(52, 45);
        // complex block of 7
        const Q t84 = x4_53 + x52_45;
        const Q t85 = x4_53 - x52_45;
        const Q x12_5 = io.pairs(12, 5);
        const Q x44_37 = io.pairs(44, 37);
        const Q t86 = x12_5 + x44_37;
        const Q t87 = x12_5 - x44_37;
        const Q x36_29 = io.pairs(36, 29);
        const Q x20_13 = io.pairs(20, 13);
        const Q t88 = x36_29 + x20_13;
        const Q t89 = x36_29 - x20_13;
        const Q t90 = t88 + t86;
        const Q t91 = t90 + t84;
        const Q x28_21 = io.pairs(28, 21);
        const Q t92 = t91 + x28_21;
        const Q t93 = c[0] * t88;
        const Q t94 = c[1] * t86;
        const Q t95 = t93 - t94;
        const Q t96 = c[2] * t84;
        const Q t97 = t95 - t96;
        const Q t98 = t97 + x28_21;
        const Q t99 = c[3] * t89;
        const Q t100 = c[4] * t87;
        const Q t101 = t99 - t100;
        const Q t102 = c[5] * t85;
        const Q t103 = t101 - t102;
        const Q t104 = c[1] * t88;
        const Q t105 = x28_21 - t104;
        const Q t106 = c[2] * t86;
        const Q t107 = t105 - t106;
        const Q t108 = c[0] * t84;
        const Q t109 = t107 + t108;
        const Q t110 = c[4] * t89;
        const Q t111 = c[5] * t87;
        const Q t112 = t110 + t111;
        const Q t113 = c[3] * t85;
        const Q t114 = t112 + t113;
        const Q t115 = c[2] * t88;
        const Q t116 = x28_21 - t115;
        const Q t117 = c[0] * t86;
        const Q t118 = t116 + t117;
        const Q t119 = c[1] * t84;
        const Q t120 = t118 - t119;
        const Q t121 = c[5] * t89;
        const Q t122 = c[3] * t87;
        const Q t123 = t121 + t122;
        const Q t124 = c[4] * t85;
        const Q t125 = t123 - t124;
        const Q x22_15 = io.pairs(22, 15);
        const Q x6_55 = io.pairs(6, 55);
        // complex block of 7
        const Q t126 = x22_15 + x6_55;
        const Q t127 = x22_15 - x6_55;
        const Q x54_47 = io.pairs(54, 47);
        const Q x30_23 = io.pairs(30, 23);
        const Q t128 = x54_47 + x30_23;
        const Q t129 = x54_47 - x30_23;
        const Q t130 = t126 + t128;
        const Q x46_39 = io.pairs(46, 39);
        const Q x38_31 = io.pairs(38, 31);
        const Q t131 = x46_39 + x38_31;
        const Q t132 = x46_39 - x38_31;
        const Q t133 = t130 + t131;
        const Q x14_7 = io.pairs(14, 7);
        const Q t134 = t133 + x14_7;
        const Q t135 = c[0] * t126;
        const Q t136 = c[1] * t128;
        const Q t137 = t135 - t136;
        const Q t138 = c[2] * t131;
        const Q t139 = t137 - t138;
        const Q t140 = t139 + x14_7;
        const Q t141 = c[3] * t127;
        const Q t142 = c[4] * t129;
        const Q t143 = t141 - t142;
        const Q t144 = c[5] * t132;
        const Q t145 = t143 - t144;
        const Q t146 = c[1] * t126;
        const Q t147 = x14_7 - t146;
        const Q t148 = c[2] * t128;
        const Q t149 = t147 - t148;
        const Q t150 = c[0] * t131;
        const Q t151 = t149 + t150;
        const Q t152 = c[4] * t127;
        const Q t153 = c[5] * t129;
        const Q t154 = t152 + t153;
        const Q t155 = c[3] * t132;
        const Q t156 = t154 + t155;
        const Q t157 = c[2] * t126;
        const Q t158 = x14_7 - t157;
        const Q t159 = c[0] * t128;
        const Q t160 = t158 + t159;
        const Q t161 = c[1] * t131;
        const Q t162 = t160 - t161;
        const Q t163 = c[5] * t127;
        const Q t164 = c[3] * t129;
        const Q t165 = t163 + t164;
        const Q t166 = c[4] * t132;
        const Q t167 = t165 - t166;
        const Q t168 = shuffled<1, 0, 3, 2>(t145);
        const Q t169 = flipped<0, 1, 0, 1>(t168);
        const Q t170 = t140 + t169;
        const Q t171 = shuffled<1, 0, 3, 2>(t61);
        const Q t172 = flipped<0, 1, 0, 1>(t171);
        // complex block of 7
        const Q t173 = t56 + t172;
        const Q t174 = shuffled<2, 3, 6, 7>(t134, t170);
        const Q t175 = shuffled<2, 3, 6, 7>(t50, t173);
        // complex block of 2
        const Q t176 = t174 - t175;
        const Q t177 = t174 + t175;
        const Q t178 = shuffled<0, 1, 4, 5>(t134, t170);
        const Q t179 = shuffled<0, 1, 4, 5>(t50, t173);
        // complex block of 2
        const Q t180 = t178 + t179;
        const Q t181 = t178 - t179;
        const Q t182 = shuffled<1, 0, 3, 2>(t103);
        const Q t183 = flipped<0, 1, 0, 1>(t182);
        // complex block of 7
        const Q t184 = t98 + t183;
        const Q t185 = shuffled<1, 0, 3, 2>(t19);
        const Q t186 = flipped<0, 1, 0, 1>(t185);
        // complex block of 7
        const Q t187 = t14 + t186;
        const Q t188 = shuffled<2, 3, 6, 7>(t92, t184);
        const Q t189 = shuffled<2, 3, 6, 7>(t8, t187);
        // complex block of 2
        const Q t190 = t188 - t189;
        const Q t191 = shuffled<0, 1, 4, 5>(t8, t187);
        const Q t192 = shuffled<0, 1, 4, 5>(t92, t184);
        // complex block of 2
        const Q t193 = t191 + t192;
        const Q t194 = t191 - t192;
        // complex block of 2
        const Q t195 = t188 + t189;
        // complex block of 2
        const Q t196 = t193 + t180;
        // complex block of 2
        const Q t197 = t177 + t195;
        // complex block of 2
        const Q t198 = t196 + t197;
        const Q t199 = t196 - t197;
        // complex block of 2
        const Q t200 = t193 - t180;
        // complex block of 2
        const Q t201 = t177 - t195;
        const Q t202 = shuffled<1, 0, 3, 2>(t201);
        const Q t203 = flipped<1, 0, 1, 0>(t202);
        // complex block of 2
        const Q t204 = t200 + t203;
        const Q t205 = t200 - t203;
        // complex block of 8, multiplier 7
        const Q t206 = c[6] * t176;
        const Q t207 = shuffled<1, 0, 3, 2>(t206);
        const Q t208 = flipped<0, 1, 0, 1>(t207);
        const Q t209 = t206 + t208;
        const Q t210 = c[6] * t190;
        const Q t211 = shuffled<1, 0, 3, 2>(t210);
        const Q t212 = flipped<0, 1, 0, 1>(t211);
        const Q t213 = t210 + t212;
        const Q t214 = shuffled<1, 0, 3, 2>(t209);
        const Q t215 = flipped<0, 1, 0, 1>(t213);
        // complex block of 2
        const Q t216 = t214 + t215;
        const Q t217 = flipped<1, 0, 1, 0>(t214);
        const Q t218 = t217 + t213;
        const Q t219 = shuffled<1, 0, 3, 2>(t181);
        const Q t220 = flipped<1, 0, 1, 0>(t219);
        // complex block of 2
        const Q t221 = t194 + t220;
        const Q t222 = t194 - t220;
        const Q t223 = flipped<1, 0, 1, 0>(t216);
        // complex block of 2
        const Q t224 = t221 + t223;
        const Q t225 = shuffled<0, 1, 6, 7>(t224, t198);
        io.pairs(7, 8, t225);
        const Q t226 = shuffled<0, 1, 6, 7>(t204, t224);
        io.pairs(14, 15, t226);
        const Q t227 = t221 - t223;
        const Q t228 = shuffled<0, 1, 6, 7>(t227, t199);
        io.pairs(35, 36, t228);
        const Q t229 = shuffled<0, 1, 6, 7>(t205, t227);
        io.pairs(42, 43, t229);
        const Q t230 = shuffled<1, 0, 3, 2>(t218);
        const Q t231 = flipped<1, 0, 1, 0>(t230);
        // complex block of 2
        const Q t232 = t222 + t231;
        const Q t233 = shuffled<0, 1, 6, 7>(t232, t204);
        io.pairs(21, 22, t233);
        const Q t234 = shuffled<0, 1, 6, 7>(t199, t232);
        io.pairs(28, 29, t234);
        const Q t235 = t222 - t231;
        const Q t236 = shuffled<0, 1, 6, 7>(t198, t235);
        io.pairs(0, 1, t236);
        const Q t237 = shuffled<0, 1, 6, 7>(t235, t205);
        io.pairs(49, 50, t237);
        // complex block of 7
        const Q t238 = t140 - t169;
        // complex block of 7
        const Q t239 = t98 - t183;
        // complex block of 7
        const Q t240 = t56 - t172;
        // complex block of 7
        const Q t241 = t14 - t186;
        const Q t242 = shuffled<0, 1, 6, 7>(t241, t238);
        const Q t243 = shuffled<0, 1, 6, 7>(t239, t240);
        // complex block of 2
        const Q t244 = t242 - t243;
        const Q t245 = shuffled<0, 1, 6, 7>(t238, t239);
        const Q t246 = shuffled<0, 1, 6, 7>(t240, t241);
        // complex block of 2
        const Q t247 = t245 - t246;
        // complex block of 2
        const Q t248 = t242 + t243;
        // complex block of 2
        const Q t249 = t245 + t246;
        const Q t250 = shuffled<2, 3, 6, 7>(t247, t244);
        // complex block of 8, multiplier 7
        const Q t251 = c[6] * t250;
        const Q t252 = shuffled<1, 0, 3, 2>(t251);
        const Q t253 = flipped<0, 1, 0, 1>(t252);
        const Q t254 = t251 + t253;
        const Q t255 = shuffled<1, 0, 3, 2>(t254);
        const Q t256 = shuffled<2, 3, 6, 7>(t248, t255);
        const Q t257 = shuffled<2, 3, 4, 5>(t249, t254);
        const Q t258 = flipped<0, 0, 0, 1>(t257);
        // complex block of 2
        const Q t259 = t256 + t258;
        const Q t260 = flipped<0, 0, 1, 0>(t256);
        const Q t261 = flipped<1, 1, 0, 1>(t258);
        const Q t262 = t260 + t261;
        const Q t263 = shuffled<0, 1, 4, 5>(t248, t244);
        const Q t264 = shuffled<1, 0, 3, 2>(t247);
        const Q t265 = shuffled<0, 1, 4, 5>(t249, t264);
        const Q t266 = flipped<0, 0, 1, 0>(t265);
        // complex block of 2
        const Q t267 = t263 + t266;
        const Q t268 = t263 - t266;
        const Q t269 = flipped<0, 0, 1, 0>(t259);
        // complex block of 2
        const Q t270 = t267 + t269;
        io.pairs(48, 55, t270);
        const Q t271 = t267 - t269;
        io.pairs(20, 27, t271);
        const Q t272 = shuffled<1, 0, 3, 2>(t262);
        const Q t273 = flipped<1, 0, 1, 0>(t272);
        // complex block of 2
        const Q t274 = t268 + t273;
        io.pairs(6, 13, t274);
        const Q t275 = t268 - t273;
        io.pairs(34, 41, t275);
        const Q t276 = shuffled<1, 0, 3, 2>(t156);
        const Q t277 = flipped<0, 1, 0, 1>(t276);
        // complex block of 7
        const Q t278 = t151 + t277;
        const Q t279 = shuffled<1, 0, 3, 2>(t167);
        const Q t280 = flipped<0, 1, 0, 1>(t279);
        const Q t281 = t162 + t280;
        const Q t282 = shuffled<1, 0, 3, 2>(t72);
        const Q t283 = flipped<0, 1, 0, 1>(t282);
        // complex block of 7
        const Q t284 = t67 + t283;
        const Q t285 = shuffled<1, 0, 3, 2>(t83);
        const Q t286 = flipped<0, 1, 0, 1>(t285);
        const Q t287 = t78 + t286;
        const Q t288 = shuffled<2, 3, 6, 7>(t278, t281);
        const Q t289 = shuffled<2, 3, 6, 7>(t284, t287);
        // complex block of 2
        const Q t290 = t288 - t289;
        const Q t291 = t288 + t289;
        const Q t292 = shuffled<0, 1, 4, 5>(t278, t281);
        const Q t293 = shuffled<0, 1, 4, 5>(t284, t287);
        // complex block of 2
        const Q t294 = t292 + t293;
        const Q t295 = t292 - t293;
        const Q t296 = shuffled<1, 0, 3, 2>(t114);
        const Q t297 = flipped<0, 1, 0, 1>(t296);
        // complex block of 7
        const Q t298 = t109 + t297;
        const Q t299 = shuffled<1, 0, 3, 2>(t125);
        const Q t300 = flipped<0, 1, 0, 1>(t299);
        const Q t301 = t120 + t300;
        const Q t302 = shuffled<1, 0, 3, 2>(t30);
        const Q t303 = flipped<0, 1, 0, 1>(t302);
        // complex block of 7
        const Q t304 = t25 + t303;
        const Q t305 = shuffled<1, 0, 3, 2>(t41);
        const Q t306 = flipped<0, 1, 0, 1>(t305);
        const Q t307 = t36 + t306;
        const Q t308 = shuffled<2, 3, 6, 7>(t298, t301);
        const Q t309 = shuffled<2, 3, 6, 7>(t304, t307);
        // complex block of 2
        const Q t310 = t308 - t309;
        const Q t311 = shuffled<0, 1, 4, 5>(t304, t307);
        const Q t312 = shuffled<0, 1, 4, 5>(t298, t301);
        // complex block of 2
        const Q t313 = t311 + t312;
        const Q t314 = t311 - t312;
        // complex block of 2
        const Q t315 = t308 + t309;
        // complex block of 2
        const Q t316 = t313 + t294;
        // complex block of 2
        const Q t317 = t291 + t315;
        // complex block of 2
        const Q t318 = t316 + t317;
        const Q t319 = t316 - t317;
        // complex block of 2
        const Q t320 = t313 - t294;
        // complex block of 2
        const Q t321 = t291 - t315;
        const Q t322 = shuffled<1, 0, 3, 2>(t321);
        const Q t323 = flipped<1, 0, 1, 0>(t322);
        // complex block of 2
        const Q t324 = t320 + t323;
        const Q t325 = t320 - t323;
        // complex block of 8, multiplier 7
        const Q t326 = c[6] * t290;
        const Q t327 = shuffled<1, 0, 3, 2>(t326);
        const Q t328 = flipped<0, 1, 0, 1>(t327);
        const Q t329 = t326 + t328;
        const Q t330 = c[6] * t310;
        const Q t331 = shuffled<1, 0, 3, 2>(t330);
        const Q t332 = flipped<0, 1, 0, 1>(t331);
        const Q t333 = t330 + t332;
        const Q t334 = shuffled<1, 0, 3, 2>(t329);
        const Q t335 = flipped<0, 1, 0, 1>(t333);
        // complex block of 2
        const Q t336 = t334 + t335;
        const Q t337 = flipped<1, 0, 1, 0>(t334);
        const Q t338 = t337 + t333;
        const Q t339 = shuffled<1, 0, 3, 2>(t295);
        const Q t340 = flipped<1, 0, 1, 0>(t339);
        // complex block of 2
        const Q t341 = t314 + t340;
        const Q t342 = t314 - t340;
        const Q t343 = flipped<1, 0, 1, 0>(t336);
        // complex block of 2
        const Q t344 = t341 + t343;
        const Q t345 = shuffled<0, 1, 6, 7>(t344, t318);
        io.pairs(23, 24, t345);
        const Q t346 = shuffled<0, 1, 6, 7>(t324, t344);
        io.pairs(30, 31, t346);
        const Q t347 = t341 - t343;
        const Q t348 = shuffled<0, 1, 6, 7>(t325, t347);
        io.pairs(2, 3, t348);
        const Q t349 = shuffled<0, 1, 6, 7>(t347, t319);
        io.pairs(51, 52, t349);
        const Q t350 = shuffled<1, 0, 3, 2>(t338);
        const Q t351 = flipped<1, 0, 1, 0>(t350);
        // complex block of 2
        const Q t352 = t342 + t351;
        const Q t353 = shuffled<0, 1, 6, 7>(t352, t324);
        io.pairs(37, 38, t353);
        const Q t354 = shuffled<0, 1, 6, 7>(t319, t352);
        io.pairs(44, 45, t354);
        const Q t355 = t342 - t351;
        const Q t356 = shuffled<0, 1, 6, 7>(t355, t325);
        io.pairs(9, 10, t356);
        const Q t357 = shuffled<0, 1, 6, 7>(t318, t355);
        io.pairs(16, 17, t357);
        // complex block of 7
        const Q t358 = t151 - t277;
        const Q t359 = t162 - t280;
        // complex block of 7
        const Q t360 = t67 - t283;
        const Q t361 = t78 - t286;
        const Q t362 = shuffled<2, 3, 6, 7>(t359, t358);
        const Q t363 = shuffled<2, 3, 6, 7>(t361, t360);
        // complex block of 2
        const Q t364 = t362 - t363;
        const Q t365 = t362 + t363;
        const Q t366 = shuffled<0, 1, 4, 5>(t359, t358);
        const Q t367 = shuffled<0, 1, 4, 5>(t361, t360);
        // complex block of 2
        const Q t368 = t366 + t367;
        const Q t369 = t366 - t367;
        // complex block of 7
        const Q t370 = t109 - t297;
        const Q t371 = t120 - t300;
        // complex block of 7
        const Q t372 = t25 - t303;
        const Q t373 = t36 - t306;
        const Q t374 = shuffled<2, 3, 6, 7>(t371, t370);
        const Q t375 = shuffled<2, 3, 6, 7>(t373, t372);
        // complex block of 2
        const Q t376 = t374 - t375;
        const Q t377 = shuffled<0, 1, 4, 5>(t373, t372);
        const Q t378 = shuffled<0, 1, 4, 5>(t371, t370);
        // complex block of 2
        const Q t379 = t377 + t378;
        const Q t380 = t377 - t378;
        // complex block of 2
        const Q t381 = t374 + t375;
        // complex block of 2
        const Q t382 = t379 + t368;
        // complex block of 2
        const Q t383 = t365 + t381;
        // complex block of 2
        const Q t384 = t382 + t383;
        const Q t385 = t382 - t383;
        // complex block of 2
        const Q t386 = t379 - t368;
        // complex block of 2
        const Q t387 = t365 - t381;
        const Q t388 = shuffled<1, 0, 3, 2>(t387);
        const Q t389 = flipped<1, 0, 1, 0>(t388);
        // complex block of 2
        const Q t390 = t386 + t389;
        const Q t391 = t386 - t389;
        // complex block of 8, multiplier 7
        const Q t392 = c[6] * t364;
        const Q t393 = shuffled<1, 0, 3, 2>(t392);
        const Q t394 = flipped<0, 1, 0, 1>(t393);
        const Q t395 = t392 + t394;
        const Q t396 = c[6] * t376;
        const Q t397 = shuffled<1, 0, 3, 2>(t396);
        const Q t398 = flipped<0, 1, 0, 1>(t397);
        const Q t399 = t396 + t398;
        const Q t400 = shuffled<1, 0, 3, 2>(t395);
        const Q t401 = flipped<0, 1, 0, 1>(t399);
        // complex block of 2
        const Q t402 = t400 + t401;
        const Q t403 = flipped<1, 0, 1, 0>(t400);
        const Q t404 = t403 + t399;
        const Q t405 = shuffled<1, 0, 3, 2>(t369);
        const Q t406 = flipped<1, 0, 1, 0>(t405);
        // complex block of 2
        const Q t407 = t380 + t406;
        const Q t408 = t380 - t406;
        const Q t409 = flipped<1, 0, 1, 0>(t402);
        // complex block of 2
        const Q t410 = t407 + t409;
        const Q t411 = shuffled<0, 1, 6, 7>(t410, t384);
        io.pairs(39, 40, t411);
        const Q t412 = shuffled<0, 1, 6, 7>(t390, t410);
        io.pairs(46, 47, t412);
        const Q t413 = t407 - t409;
        const Q t414 = shuffled<0, 1, 6, 7>(t413, t385);
        io.pairs(11, 12, t414);
        const Q t415 = shuffled<0, 1, 6, 7>(t391, t413);
        io.pairs(18, 19, t415);
        const Q t416 = shuffled<1, 0, 3, 2>(t404);
        const Q t417 = flipped<1, 0, 1, 0>(t416);
        // complex block of 2
        const Q t418 = t408 + t417;
        const Q t419 = shuffled<0, 1, 6, 7>(t385, t418);
        io.pairs(4, 5, t419);
        const Q t420 = shuffled<0, 1, 6, 7>(t418, t390);
        io.pairs(53, 54, t420);
        const Q t421 = t408 - t417;
        const Q t422 = shuffled<0, 1, 6, 7>(t421, t391);
        io.pairs(25, 26, t422);
        const Q t423 = shuffled<0, 1, 6, 7>(t384, t421);
        io.pairs(32, 33, t423);
    }
};

}  // namespace zulg
