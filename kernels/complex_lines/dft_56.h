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
        const Q t4 = t0 + t2;
        const Q x32_39 = io.pairs(32, 39);
        const Q x24_31 = io.pairs(24, 31);
        const Q t5 = x32_39 + x24_31;
        const Q t6 = x32_39 - x24_31;
        const Q t7 = t4 + t5;
        const Q x0_7 = io.pairs(0, 7);
        const Q t8 = t7 + x0_7;
        const Q t9 = c[0] * t0;
        const Q t10 = c[1] * t2;
        const Q t11 = t9 - t10;
        const Q t12 = c[2] * t5;
        const Q t13 = t11 - t12;
        const Q t14 = t13 + x0_7;
        const Q t15 = c[3] * t1;
        const Q t16 = c[4] * t3;
        const Q t17 = t15 - t16;
        const Q t18 = c[5] * t6;
        const Q t19 = t17 - t18;
        const Q t20 = c[1] * t0;
        const Q t21 = x0_7 - t20;
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
        const Q t32 = x0_7 - t31;
        const Q t33 = c[0] * t2;
        const Q t34 = t32 + t33;
        const Q t35 = c[1] * t5;
        const Q t36 = t34 - t35;
        const Q t37 = c[5] * t1;
        const Q t38 = c[3] * t3;
        const Q t39 = t37 + t38;
        const Q t40 = c[4] * t6;
        const Q t41 = t39 - t40;
        const Q x50_1 = io.pairs(50, 1);
        const Q x34_41 = io.pairs(34, 41);
        // complex block of 7
        const Q t42 = x50_1 + x34_41;
        const Q t43 = x50_1 - x34_41;
        const Q x26_33 = io.pairs(26, 33);
        const Q x2_9 = io.pairs(2, 9);
        const Q t44 = x26_33 + x2_9;
        const Q t45 = x26_33 - x2_9;
        const Q t46 = t42 + t44;
        const Q x18_25 = io.pairs(18, 25);
        const Q x10_17 = io.pairs(10, 17);
        const Q t47 = x18_25 + x10_17;
        const Q t48 = x18_25 - x10_17;
        const Q t49 = t46 + t47;
        const Q x42_49 = io.pairs(42, 49);
        const Q t50 = t49 + x42_49;
        const Q t51 = c[0] * t42;
        const Q t52 = c[1] * t44;
        const Q t53 = t51 - t52;
        const Q t54 = c[2] * t47;
        const Q t55 = t53 - t54;
        const Q t56 = t55 + x42_49;
        const Q t57 = c[3] * t43;
        const Q t58 = c[4] * t45;
        const Q t59 = t57 - t58;
        const Q t60 = c[5] * t48;
        const Q t61 = t59 - t60;
        const Q t62 = c[1] * t42;
        const Q t63 = x42_49 - t62;
        const Q t64 = c[2] * t44;
        const Q t65 = t63 - t64;
        const Q t66 = c[0] * t47;
        const Q t67 = t65 + t66;
        const Q t68 = c[4] * t43;
        const Q t69 = c[5] * t45;
        const Q t70 = t68 + t69;
        const Q t71 = c[3] * t48;
        const Q t72 = t70 + t71;
        const Q t73 = c[2] * t42;
        const Q t74 = x42_49 - t73;
        const Q t75 = c[0] * t44;
        const Q t76 = t74 + t75;
        const Q t77 = c[1] * t47;
        const Q t78 = t76 - t77;
        const Q t79 = c[5] * t43;
        const Q t80 = c[3] * t45;
        const Q t81 = t79 + t80;
        const Q t82 = c[4] * t48;
        const Q t83 = t81 - t82;
        const Q x4_11 = io.pairs(4, 11);
        const Q x52_3 = io.pairs(52, 3);
        // complex block of 7
        const Q t84 = x4_11 + x52_3;
        const Q t85 = x4_11 - x52_3;
        const Q x12_19 = io.pairs(12, 19);
        const Q x44_51 = io.pairs(44, 51);
        const Q t86 = x12_19 + x44_51;
        const Q t87 = x12_19 - x44_51;
        const Q x36_43 = io.pairs(36, 43);
        const Q x20_27 = io.pairs(20, 27);
        const Q t88 = x36_43 + x20_27;
        const Q t89 = x36_43 - x20_27;
        const Q t90 = t88 + t86;
        const Q t91 = t90 + t84;
        const Q x28_35 = io.pairs(28, 35);
        const Q t92 = t91 + x28_35;
        const Q t93 = c[0] * t88;
        const Q t94 = c[1] * t86;
        const Q t95 = t93 - t94;
        const Q t96 = c[2] * t84;
        const Q t97 = t95 - t96;
        const Q t98 = t97 + x28_35;
        const Q t99 = c[3] * t89;
        const Q t100 = c[4] * t87;
        const Q t101 = t99 - t100;
        const Q t102 = c[5] * t85;
        const Q t103 = t101 - t102;
        const Q t104 = c[1] * t88;
        const Q t105 = x28_35 - t104;
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
        const Q t116 = x28_35 - t115;
        const Q t117 = c[0] * t86;
        const Q t118 = t116 + t117;
        const Q t119 = c[1] * t84;
        const Q t120 = t118 - t119;
        const Q t121 = c[5] * t89;
        const Q t122 = c[3] * t87;
        const Q t123 = t121 + t122;
        const Q t124 = c[4] * t85;
        const Q t125 = t123 - t124;
        const Q x54_5 = io.pairs(54, 5);
        const Q x30_37 = io.pairs(30, 37);
        // complex block of 7
        const Q t126 = x54_5 + x30_37;
        const Q t127 = x54_5 - x30_37;
        const Q x22_29 = io.pairs(22, 29);
        const Q x6_13 = io.pairs(6, 13);
        const Q t128 = x22_29 + x6_13;
        const Q t129 = x22_29 - x6_13;
        const Q t130 = t128 + t126;
        const Q x46_53 = io.pairs(46, 53);
        const Q x38_45 = io.pairs(38, 45);
        const Q t131 = x46_53 + x38_45;
        const Q t132 = x46_53 - x38_45;
        const Q t133 = t130 + t131;
        const Q x14_21 = io.pairs(14, 21);
        const Q t134 = t133 + x14_21;
        const Q t135 = c[0] * t128;
        const Q t136 = c[1] * t126;
        const Q t137 = t135 - t136;
        const Q t138 = c[2] * t131;
        const Q t139 = t137 - t138;
        const Q t140 = t139 + x14_21;
        const Q t141 = c[3] * t129;
        const Q t142 = c[4] * t127;
        const Q t143 = t141 - t142;
        const Q t144 = c[5] * t132;
        const Q t145 = t143 - t144;
        const Q t146 = c[1] * t128;
        const Q t147 = x14_21 - t146;
        const Q t148 = c[2] * t126;
        const Q t149 = t147 - t148;
        const Q t150 = c[0] * t131;
        const Q t151 = t149 + t150;
        const Q t152 = c[4] * t129;
        const Q t153 = c[5] * t127;
        const Q t154 = t152 + t153;
        const Q t155 = c[3] * t132;
        const Q t156 = t154 + t155;
        const Q t157 = c[2] * t128;
        const Q t158 = x14_21 - t157;
        const Q t159 = c[0] * t126;
        const Q t160 = t158 + t159;
        const Q t161 = c[1] * t131;
        const Q t162 = t160 - t161;
        const Q t163 = c[5] * t129;
        const Q t164 = c[3] * t127;
        const Q t165 = t163 + t164;
        const Q t166 = c[4] * t132;
        const Q t167 = t165 - t166;
        const Q t168 = shuffled<1, 0, 3, 2>(t19);
        const Q t169 = flipped<0, 1, 0, 1>(t168);
        // complex block of 7
        const Q t170 = t14 + t169;
        const Q t171 = shuffled<1, 0, 3, 2>(t103);
        const Q t172 = flipped<0, 1, 0, 1>(t171);
        // complex block of 7
        const Q t173 = t98 + t172;
        const Q t174 = shuffled<2, 3, 6, 7>(t8, t170);
        const Q t175 = shuffled<2, 3, 6, 7>(t92, t173);
        // complex block of 2
        const Q t176 = t174 - t175;
        const Q t177 = shuffled<0, 1, 4, 5>(t8, t170);
        const Q t178 = shuffled<0, 1, 4, 5>(t92, t173);
        // complex block of 2
        const Q t179 = t177 + t178;
        const Q t180 = t177 - t178;
        // complex block of 2
        const Q t181 = t174 + t175;
        const Q t182 = shuffled<1, 0, 3, 2>(t145);
        const Q t183 = flipped<0, 1, 0, 1>(t182);
        // complex block of 7
        const Q t184 = t140 + t183;
        const Q t185 = shuffled<1, 0, 3, 2>(t61);
        const Q t186 = flipped<0, 1, 0, 1>(t185);
        // complex block of 7
        const Q t187 = t56 + t186;
        const Q t188 = shuffled<2, 3, 6, 7>(t134, t184);
        const Q t189 = shuffled<2, 3, 6, 7>(t50, t187);
        // complex block of 2
        const Q t190 = t188 - t189;
        const Q t191 = shuffled<0, 1, 4, 5>(t134, t184);
        const Q t192 = shuffled<0, 1, 4, 5>(t50, t187);
        // complex block of 2
        const Q t193 = t191 + t192;
        const Q t194 = t191 - t192;
        // complex block of 2
        const Q t195 = t188 + t189;
        // complex block of 2
        const Q t196 = t179 + t193;
        // complex block of 2
        const Q t197 = t181 + t195;
        // complex block of 2
        const Q t198 = t196 + t197;
        io.pairs(0, 8, t198);
        const Q t199 = t196 - t197;
        io.pairs(28, 36, t199);
        // complex block of 2
        const Q t200 = t179 - t193;
        // complex block of 2
        const Q t201 = t181 - t195;
        const Q t202 = shuffled<1, 0, 3, 2>(t201);
        const Q t203 = flipped<1, 0, 1, 0>(t202);
        // complex block of 2
        const Q t204 = t200 + t203;
        io.pairs(14, 22, t204);
        const Q t205 = t200 - t203;
        io.pairs(42, 50, t205);
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
        const Q t219 = shuffled<1, 0, 3, 2>(t194);
        const Q t220 = flipped<1, 0, 1, 0>(t219);
        // complex block of 2
        const Q t221 = t180 + t220;
        const Q t222 = t180 - t220;
        const Q t223 = flipped<1, 0, 1, 0>(t216);
        // complex block of 2
        const Q t224 = t221 + t223;
        io.pairs(7, 15, t224);
        const Q t225 = t221 - t223;
        io.pairs(35, 43, t225);
        const Q t226 = shuffled<1, 0, 3, 2>(t218);
        const Q t227 = flipped<1, 0, 1, 0>(t226);
        // complex block of 2
        const Q t228 = t222 + t227;
        io.pairs(21, 29, t228);
        const Q t229 = t222 - t227;
        io.pairs(49, 1, t229);
        // complex block of 7
        const Q t230 = t14 - t169;
        // complex block of 7
        const Q t231 = t98 - t172;
        // complex block of 2
        const Q t232 = t230 - t231;
        // complex block of 7
        const Q t233 = t140 - t183;
        // complex block of 7
        const Q t234 = t56 - t186;
        // complex block of 2
        const Q t235 = t233 - t234;
        // complex block of 2
        const Q t236 = t230 + t231;
        // complex block of 2
        const Q t237 = t233 + t234;
        const Q t238 = shuffled<2, 3, 6, 7>(t235, t232);
        // complex block of 8, multiplier 7
        const Q t239 = c[6] * t238;
        const Q t240 = shuffled<1, 0, 3, 2>(t239);
        const Q t241 = flipped<0, 1, 0, 1>(t240);
        const Q t242 = t239 + t241;
        const Q t243 = shuffled<1, 0, 3, 2>(t242);
        const Q t244 = shuffled<2, 3, 6, 7>(t236, t243);
        const Q t245 = shuffled<2, 3, 4, 5>(t237, t242);
        const Q t246 = flipped<0, 0, 0, 1>(t245);
        // complex block of 2
        const Q t247 = t244 + t246;
        const Q t248 = flipped<0, 0, 1, 0>(t244);
        const Q t249 = flipped<1, 1, 0, 1>(t246);
        const Q t250 = t248 + t249;
        const Q t251 = shuffled<0, 1, 4, 5>(t236, t232);
        const Q t252 = shuffled<1, 0, 3, 2>(t235);
        const Q t253 = shuffled<0, 1, 4, 5>(t237, t252);
        const Q t254 = flipped<0, 0, 1, 0>(t253);
        // complex block of 2
        const Q t255 = t251 + t254;
        const Q t256 = t251 - t254;
        const Q t257 = flipped<0, 0, 1, 0>(t247);
        // complex block of 2
        const Q t258 = t255 + t257;
        io.pairs(48, 55, t258);
        const Q t259 = t255 - t257;
        io.pairs(20, 27, t259);
        const Q t260 = shuffled<1, 0, 3, 2>(t250);
        const Q t261 = flipped<1, 0, 1, 0>(t260);
        // complex block of 2
        const Q t262 = t256 + t261;
        io.pairs(6, 13, t262);
        const Q t263 = t256 - t261;
        io.pairs(34, 41, t263);
        const Q t264 = shuffled<1, 0, 3, 2>(t30);
        const Q t265 = flipped<0, 1, 0, 1>(t264);
        // complex block of 7
        const Q t266 = t25 + t265;
        const Q t267 = shuffled<1, 0, 3, 2>(t41);
        const Q t268 = flipped<0, 1, 0, 1>(t267);
        const Q t269 = t36 + t268;
        const Q t270 = shuffled<1, 0, 3, 2>(t114);
        const Q t271 = flipped<0, 1, 0, 1>(t270);
        // complex block of 7
        const Q t272 = t109 + t271;
        const Q t273 = shuffled<1, 0, 3, 2>(t125);
        const Q t274 = flipped<0, 1, 0, 1>(t273);
        const Q t275 = t120 + t274;
        const Q t276 = shuffled<2, 3, 6, 7>(t266, t269);
        const Q t277 = shuffled<2, 3, 6, 7>(t272, t275);
        // complex block of 2
        const Q t278 = t276 - t277;
        const Q t279 = shuffled<0, 1, 4, 5>(t266, t269);
        const Q t280 = shuffled<0, 1, 4, 5>(t272, t275);
        // complex block of 2
        const Q t281 = t279 + t280;
        const Q t282 = t279 - t280;
        // complex block of 2
        const Q t283 = t276 + t277;
        const Q t284 = shuffled<1, 0, 3, 2>(t156);
        const Q t285 = flipped<0, 1, 0, 1>(t284);
        // complex block of 7
        const Q t286 = t151 + t285;
        const Q t287 = shuffled<1, 0, 3, 2>(t167);
        const Q t288 = flipped<0, 1, 0, 1>(t287);
        const Q t289 = t162 + t288;
        const Q t290 = shuffled<1, 0, 3, 2>(t72);
        const Q t291 = flipped<0, 1, 0, 1>(t290);
        // complex block of 7
        const Q t292 = t67 + t291;
        const Q t293 = shuffled<1, 0, 3, 2>(t83);
        const Q t294 = flipped<0, 1, 0, 1>(t293);
        const Q t295 = t78 + t294;
        const Q t296 = shuffled<2, 3, 6, 7>(t286, t289);
        const Q t297 = shuffled<2, 3, 6, 7>(t292, t295);
        // complex block of 2
        const Q t298 = t296 - t297;
        const Q t299 = shuffled<0, 1, 4, 5>(t286, t289);
        const Q t300 = shuffled<0, 1, 4, 5>(t292, t295);
        // complex block of 2
        const Q t301 = t299 + t300;
        const Q t302 = t299 - t300;
        // complex block of 2
        const Q t303 = t296 + t297;
        // complex block of 2
        const Q t304 = t281 + t301;
        // complex block of 2
        const Q t305 = t283 + t303;
        // complex block of 2
        const Q t306 = t304 + t305;
        io.pairs(16, 24, t306);
        const Q t307 = t304 - t305;
        io.pairs(44, 52, t307);
        // complex block of 2
        const Q t308 = t281 - t301;
        // complex block of 2
        const Q t309 = t283 - t303;
        const Q t310 = shuffled<1, 0, 3, 2>(t309);
        const Q t311 = flipped<1, 0, 1, 0>(t310);
        // complex block of 2
        const Q t312 = t308 + t311;
        io.pairs(30, 38, t312);
        const Q t313 = t308 - t311;
        io.pairs(2, 10, t313);
        // complex block of 8, multiplier 7
        const Q t314 = c[6] * t278;
        const Q t315 = shuffled<1, 0, 3, 2>(t314);
        const Q t316 = flipped<0, 1, 0, 1>(t315);
        const Q t317 = t314 + t316;
        const Q t318 = c[6] * t298;
        const Q t319 = shuffled<1, 0, 3, 2>(t318);
        const Q t320 = flipped<0, 1, 0, 1>(t319);
        const Q t321 = t318 + t320;
        const Q t322 = shuffled<1, 0, 3, 2>(t317);
        const Q t323 = flipped<0, 1, 0, 1>(t321);
        // complex block of 2
        const Q t324 = t322 + t323;
        const Q t325 = flipped<1, 0, 1, 0>(t322);
        const Q t326 = t325 + t321;
        const Q t327 = shuffled<1, 0, 3, 2>(t302);
        const Q t328 = flipped<1, 0, 1, 0>(t327);
        // complex block of 2
        const Q t329 = t282 + t328;
        const Q t330 = t282 - t328;
        const Q t331 = flipped<1, 0, 1, 0>(t324);
        // complex block of 2
        const Q t332 = t329 + t331;
        io.pairs(23, 31, t332);
        const Q t333 = t329 - t331;
        io.pairs(51, 3, t333);
        const Q t334 = shuffled<1, 0, 3, 2>(t326);
        const Q t335 = flipped<1, 0, 1, 0>(t334);
        // complex block of 2
        const Q t336 = t330 + t335;
        io.pairs(37, 45, t336);
        const Q t337 = t330 - t335;
        io.pairs(9, 17, t337);
        // complex block of 7
        const Q t338 = t25 - t265;
        const Q t339 = t36 - t268;
        // complex block of 7
        const Q t340 = t109 - t271;
        const Q t341 = t120 - t274;
        const Q t342 = shuffled<2, 3, 6, 7>(t339, t338);
        const Q t343 = shuffled<2, 3, 6, 7>(t341, t340);
        // complex block of 2
        const Q t344 = t342 - t343;
        const Q t345 = shuffled<0, 1, 4, 5>(t339, t338);
        const Q t346 = shuffled<0, 1, 4, 5>(t341, t340);
        // complex block of 2
        const Q t347 = t345 + t346;
        const Q t348 = t345 - t346;
        // complex block of 2
        const Q t349 = t342 + t343;
        // complex block of 7
        const Q t350 = t151 - t285;
        const Q t351 = t162 - t288;
        // complex block of 7
        const Q t352 = t67 - t291;
        const Q t353 = t78 - t294;
        const Q t354 = shuffled<2, 3, 6, 7>(t351, t350);
        const Q t355 = shuffled<2, 3, 6, 7>(t353, t352);
        // complex block of 2
        const Q t356 = t354 - t355;
        const Q t357 = shuffled<0, 1, 4, 5>(t351, t350);
        const Q t358 = shuffled<0, 1, 4, 5>(t353, t352);
        // complex block of 2
        const Q t359 = t357 + t358;
        const Q t360 = t357 - t358;
        // complex block of 2
        const Q t361 = t354 + t355;
        // complex block of 2
        const Q t362 = t347 + t359;
        // complex block of 2
        const Q t363 = t349 + t361;
        // complex block of 2
        const Q t364 = t362 + t363;
        io.pairs(32, 40, t364);
        const Q t365 = t362 - t363;
        io.pairs(4, 12, t365);
        // complex block of 2
        const Q t366 = t347 - t359;
        // complex block of 2
        const Q t367 = t349 - t361;
        const Q t368 = shuffled<1, 0, 3, 2>(t367);
        const Q t369 = flipped<1, 0, 1, 0>(t368);
        // complex block of 2
        const Q t370 = t366 + t369;
        io.pairs(46, 54, t370);
        const Q t371 = t366 - t369;
        io.pairs(18, 26, t371);
        // complex block of 8, multiplier 7
        const Q t372 = c[6] * t344;
        const Q t373 = shuffled<1, 0, 3, 2>(t372);
        const Q t374 = flipped<0, 1, 0, 1>(t373);
        const Q t375 = t372 + t374;
        const Q t376 = c[6] * t356;
        const Q t377 = shuffled<1, 0, 3, 2>(t376);
        const Q t378 = flipped<0, 1, 0, 1>(t377);
        const Q t379 = t376 + t378;
        const Q t380 = shuffled<1, 0, 3, 2>(t375);
        const Q t381 = flipped<0, 1, 0, 1>(t379);
        // complex block of 2
        const Q t382 = t380 + t381;
        const Q t383 = flipped<1, 0, 1, 0>(t380);
        const Q t384 = t383 + t379;
        const Q t385 = shuffled<1, 0, 3, 2>(t360);
        const Q t386 = flipped<1, 0, 1, 0>(t385);
        // complex block of 2
        const Q t387 = t348 + t386;
        const Q t388 = t348 - t386;
        const Q t389 = flipped<1, 0, 1, 0>(t382);
        // complex block of 2
        const Q t390 = t387 + t389;
        io.pairs(39, 47, t390);
        const Q t391 = t387 - t389;
        io.pairs(11, 19, t391);
        const Q t392 = shuffled<1, 0, 3, 2>(t384);
        const Q t393 = flipped<1, 0, 1, 0>(t392);
        // complex block of 2
        const Q t394 = t388 + t393;
        io.pairs(53, 5, t394);
        const Q t395 = t388 - t393;
        io.pairs(25, 33, t395);
    }
};

}  // namespace zulg
