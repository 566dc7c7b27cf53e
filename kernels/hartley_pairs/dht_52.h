// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 52.
// Hartley transform of 52 points, form F; two lanes to a register.
// 116 sums, 116 differences, 82 products of registers, which do the 680 steps of the graph, those with
// `scale` included; 74 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<52> {
    static constexpr int steps = 680;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6007253775544544,  // c[2]: -Q[1] of 13
        0.015496188988565054,  // c[3]: -P[1] of 13
        0.007705858903092426,  // c[4]: P[2] of 13
        0.6008758031820526,  // c[5]: -Q[2] of 13
        0.5751407294740031,  // c[6]: -P[3] of 13
        0.1741386011521359,  // c[7]: Q[3] of 13
        0.5794400189009605,  // c[8]: -P[4] of 13
        0.15924941320823024,  // c[9]: -Q[4] of 13
        0.3203288761978803,  // c[10]: -P[5] of 13
        0.5084294662830964,  // c[11]: -Q[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x12_25 = io.in(12, 25);
        const P x36_49 = io.in(36, 49);
        // real block of 3
        const P t0 = x12_25 + x36_49;
        const P t1 = x12_25 - x36_49;
        const P x4_17 = io.in(4, 17);
        const P t2 = t0 + x4_17;
        const P t3 = c[0] * t0;
        const P t4 = x4_17 - t3;
        const P x44_5 = io.in(44, 5);
        const P x28_41 = io.in(28, 41);
        // real block of 3
        const P t5 = x44_5 + x28_41;
        const P t6 = x44_5 - x28_41;
        const P x32_45 = io.in(32, 45);
        const P t7 = t5 + x32_45;
        const P t8 = c[0] * t5;
        const P t9 = x32_45 - t8;
        const P x40_1 = io.in(40, 1);
        const P x16_29 = io.in(16, 29);
        // real block of 3
        const P t10 = x40_1 + x16_29;
        const P t11 = x40_1 - x16_29;
        const P x48_9 = io.in(48, 9);
        const P t12 = t10 + x48_9;
        const P t13 = c[0] * t10;
        const P t14 = x48_9 - t13;
        const P x8_21 = io.in(8, 21);
        const P x24_37 = io.in(24, 37);
        // real block of 3
        const P t15 = x8_21 + x24_37;
        const P t16 = x8_21 - x24_37;
        const P x20_33 = io.in(20, 33);
        const P t17 = t15 + x20_33;
        const P t18 = c[0] * t15;
        const P t19 = x20_33 - t18;
        // real block of 2
        const P t20 = t2 + t12;
        const P t21 = t2 - t12;
        // real block of 2
        const P t22 = t7 + t17;
        const P t23 = t7 - t17;
        // real block of 2
        const P t24 = t20 + t22;
        const P t25 = t20 - t22;
        // complex block of 2
        const P t26 = t4 + t14;
        // real block of 3
        const P t27 = c[1] * t1;
        // real block of 3
        const P t28 = c[1] * t11;
        // complex block of 2
        const P t29 = t27 + t28;
        const P t30 = t4 - t14;
        const P t31 = t28 - t27;
        // complex block of 2
        const P t32 = t9 + t19;
        // real block of 3
        const P t33 = c[1] * t6;
        // real block of 3
        const P t34 = c[1] * t16;
        // complex block of 2
        const P t35 = t33 + t34;
        const P t36 = t9 - t19;
        const P t37 = t34 - t33;
        // complex block of 2
        const P t38 = t26 + t32;
        const P t39 = t29 + t35;
        const P t40 = t26 - t32;
        const P t41 = t35 - t29;
        // complex block of 2
        const P t42 = t30 - t37;
        const P t43 = t31 + t36;
        const P t44 = t30 + t37;
        const P t45 = t31 - t36;
        const P x0_13 = io.in(0, 13);
        // real block of 13, multiplier 4
        const P t46 = x0_13 + t24;
        const P t47 = c[12] * t24;
        const P t48 = x0_13 - t47;
        const P t49 = c[2] * t45;
        const P t50 = c[3] * t44;
        const P t51 = t49 - t50;
        const P t52 = c[3] * t45;
        const P t53 = c[2] * t44;
        const P t54 = t52 + t53;
        const P t55 = c[4] * t40;
        const P t56 = c[5] * t41;
        const P t57 = t55 - t56;
        const P t58 = c[4] * t41;
        const P t59 = c[5] * t40;
        const P t60 = t58 + t59;
        const P t61 = c[6] * t21;
        const P t62 = c[7] * t23;
        const P t63 = t61 + t62;
        const P t64 = c[7] * t21;
        const P t65 = c[6] * t23;
        const P t66 = t64 - t65;
        const P t67 = c[8] * t38;
        const P t68 = c[9] * t39;
        const P t69 = t67 + t68;
        const P t70 = c[8] * t39;
        const P t71 = c[9] * t38;
        const P t72 = t70 - t71;
        const P t73 = c[10] * t42;
        const P t74 = c[11] * t43;
        const P t75 = t73 + t74;
        const P t76 = c[10] * t43;
        const P t77 = c[11] * t42;
        const P t78 = t76 - t77;
        const P t79 = c[13] * t25;
        // spectrum block of 2
        const P t80 = t48 + t79;
        const P t81 = t48 - t79;
        // complex block of 2
        const P t82 = t72 + t60;
        const P t83 = t57 - t69;
        const P t84 = t72 - t60;
        const P t85 = t69 + t57;
        // spectrum block of 3, multiplier 2
        const P t86 = t83 + t80;
        const P t87 = c[0] * t83;
        const P t88 = t80 - t87;
        const P t89 = c[1] * t82;
        const P t90 = t88 - t89;
        const P t91 = t88 + t89;
        // spectrum block of 3, multiplier 2
        const P t92 = t81 - t85;
        const P t93 = c[0] * t85;
        const P t94 = t93 + t81;
        const P t95 = c[1] * t84;
        const P t96 = t94 - t95;
        const P t97 = t94 + t95;
        // complex block of 2
        const P t98 = t51 + t75;
        const P t99 = t78 - t54;
        const P t100 = t75 - t51;
        const P t101 = t54 + t78;
        // mirrored skew block of 6
        const P t102 = c[1] * t101;
        const P t103 = c[0] * t100;
        const P t104 = t102 + t103;
        // spectrum block of 3, multiplier 2
        const P t105 = t99 + t66;
        const P t106 = c[0] * t99;
        const P t107 = t66 - t106;
        const P t108 = c[1] * t98;
        const P t109 = t107 - t108;
        const P t110 = t107 + t108;
        // spectrum block of 3, multiplier 2
        const P t111 = t104 + t63;
        const P t112 = c[0] * t104;
        const P t113 = t112 - t63;
        const P t114 = c[14] * t100;
        const P t115 = c[15] * t101;
        const P t116 = t114 - t115;
        const P t117 = t113 + t116;
        const P t118 = t113 - t116;
        const P x38_51 = io.in(38, 51);
        const P x10_23 = io.in(10, 23);
        // real block of 3
        const P t119 = x38_51 + x10_23;
        const P t120 = x38_51 - x10_23;
        const P x30_43 = io.in(30, 43);
        const P t121 = t119 + x30_43;
        const P t122 = c[0] * t119;
        const P t123 = x30_43 - t122;
        const P x18_31 = io.in(18, 31);
        const P x2_15 = io.in(2, 15);
        // real block of 3
        const P t124 = x18_31 + x2_15;
        const P t125 = x18_31 - x2_15;
        const P x6_19 = io.in(6, 19);
        const P t126 = t124 + x6_19;
        const P t127 = c[0] * t124;
        const P t128 = x6_19 - t127;
        const P x14_27 = io.in(14, 27);
        const P x42_3 = io.in(42, 3);
        // real block of 3
        const P t129 = x14_27 + x42_3;
        const P t130 = x14_27 - x42_3;
        const P x22_35 = io.in(22, 35);
        const P t131 = t129 + x22_35;
        const P t132 = c[0] * t129;
        const P t133 = x22_35 - t132;
        const P x34_47 = io.in(34, 47);
        const P x50_11 = io.in(50, 11);
        // real block of 3
        const P t134 = x34_47 + x50_11;
        const P t135 = x34_47 - x50_11;
        const P x46_7 = io.in(46, 7);
        const P t136 = t134 + x46_7;
        const P t137 = c[0] * t134;
        const P t138 = x46_7 - t137;
        // real block of 2
        const P t139 = t121 + t131;
        const P t140 = t121 - t131;
        // real block of 2
        const P t141 = t126 + t136;
        const P t142 = t126 - t136;
        // real block of 2
        const P t143 = t139 + t141;
        const P t144 = t139 - t141;
        // complex block of 2
        const P t145 = t123 + t133;
        // real block of 3
        const P t146 = c[1] * t120;
        // real block of 3
        const P t147 = c[1] * t130;
        // complex block of 2
        const P t148 = t146 + t147;
        const P t149 = t123 - t133;
        const P t150 = t147 - t146;
        // complex block of 2
        const P t151 = t128 + t138;
        // real block of 3
        const P t152 = c[1] * t125;
        // real block of 3
        const P t153 = c[1] * t135;
        // complex block of 2
        const P t154 = t152 + t153;
        const P t155 = t128 - t138;
        const P t156 = t153 - t152;
        // complex block of 2
        const P t157 = t145 + t151;
        const P t158 = t148 + t154;
        const P t159 = t145 - t151;
        const P t160 = t154 - t148;
        // complex block of 2
        const P t161 = t149 - t156;
        const P t162 = t150 + t155;
        const P t163 = t149 + t156;
        const P t164 = t150 - t155;
        const P x26_39 = io.in(26, 39);
        // real block of 13, multiplier 4
        const P t165 = x26_39 + t143;
        const P t166 = c[12] * t143;
        const P t167 = x26_39 - t166;
        const P t168 = c[2] * t164;
        const P t169 = c[3] * t163;
        const P t170 = t168 - t169;
        const P t171 = c[3] * t164;
        const P t172 = c[2] * t163;
        const P t173 = t171 + t172;
        const P t174 = c[4] * t159;
        const P t175 = c[5] * t160;
        const P t176 = t174 - t175;
        const P t177 = c[4] * t160;
        const P t178 = c[5] * t159;
        const P t179 = t177 + t178;
        const P t180 = c[6] * t140;
        const P t181 = c[7] * t142;
        const P t182 = t180 + t181;
        const P t183 = c[7] * t140;
        const P t184 = c[6] * t142;
        const P t185 = t183 - t184;
        const P t186 = c[8] * t157;
        const P t187 = c[9] * t158;
        const P t188 = t186 + t187;
        const P t189 = c[8] * t158;
        const P t190 = c[9] * t157;
        const P t191 = t189 - t190;
        const P t192 = c[10] * t161;
        const P t193 = c[11] * t162;
        const P t194 = t192 + t193;
        const P t195 = c[10] * t162;
        const P t196 = c[11] * t161;
        const P t197 = t195 - t196;
        const P t198 = c[13] * t144;
        // spectrum block of 2
        const P t199 = t167 + t198;
        const P t200 = t167 - t198;
        // complex block of 2
        const P t201 = t191 + t179;
        const P t202 = t176 - t188;
        const P t203 = t191 - t179;
        const P t204 = t188 + t176;
        // spectrum block of 3, multiplier 2
        const P t205 = t202 + t199;
        const P t206 = c[0] * t202;
        const P t207 = t199 - t206;
        const P t208 = c[1] * t201;
        const P t209 = t207 - t208;
        const P t210 = t207 + t208;
        // spectrum block of 3, multiplier 2
        const P t211 = t200 - t204;
        const P t212 = c[0] * t204;
        const P t213 = t212 + t200;
        const P t214 = c[1] * t203;
        const P t215 = t213 - t214;
        const P t216 = t213 + t214;
        // complex block of 2
        const P t217 = t170 + t194;
        const P t218 = t197 - t173;
        const P t219 = t194 - t170;
        const P t220 = t173 + t197;
        // mirrored skew block of 6
        const P t221 = c[1] * t220;
        const P t222 = c[0] * t219;
        const P t223 = t221 + t222;
        // spectrum block of 3, multiplier 2
        const P t224 = t218 + t185;
        const P t225 = c[0] * t218;
        const P t226 = t185 - t225;
        const P t227 = c[1] * t217;
        const P t228 = t226 - t227;
        const P t229 = t226 + t227;
        // spectrum block of 3, multiplier 2
        const P t230 = t223 + t182;
        const P t231 = c[0] * t223;
        const P t232 = t231 - t182;
        const P t233 = c[14] * t219;
        const P t234 = c[15] * t220;
        const P t235 = t233 - t234;
        const P t236 = t232 + t235;
        const P t237 = t232 - t235;
        // real block of 2
        const P t238 = t46 + t165;
        const P t239 = t46 - t165;
        const P t240 = shuffled<0, 2>(t86, t105);
        const P t241 = shuffled<0, 2>(t205, t224);
        // complex block of 2
        const P t242 = t240 + t241;
        const P t243 = t240 - t241;
        const P t244 = shuffled<1, 3>(t86, t105);
        const P t245 = shuffled<1, 3>(t205, t224);
        // complex block of 2
        const P t246 = t244 + t245;
        const P t247 = t244 - t245;
        // complex block of 2
        const P t248 = t242 + t246;
        const P t249 = t242 - t246;
        const P t250 = shuffled<1, 0>(t247);
        const P t251 = flipped<0, 1>(t250);
        // complex block of 2
        const P t252 = t243 + t251;
        const P t253 = t243 - t251;
        const P t254 = shuffled<0, 2>(t97, t118);
        const P t255 = shuffled<0, 2>(t216, t237);
        // complex block of 2
        const P t256 = t254 + t255;
        const P t257 = shuffled<0, 3>(t254, t255);
        const P t258 = shuffled<0, 3>(t255, t254);
        const P t259 = t257 - t258;
        const P t260 = shuffled<1, 3>(t97, t118);
        const P t261 = shuffled<1, 3>(t216, t237);
        // complex block of 2
        const P t262 = t260 + t261;
        const P t263 = shuffled<0, 3>(t260, t261);
        const P t264 = shuffled<0, 3>(t261, t260);
        const P t265 = t263 - t264;
        // complex block of 2
        const P t266 = t256 + t262;
        const P t267 = shuffled<0, 3>(t256, t262);
        const P t268 = shuffled<0, 3>(t262, t256);
        const P t269 = t267 - t268;
        const P t270 = shuffled<1, 0>(t265);
        const P t271 = flipped<0, 1>(t270);
        // complex block of 2
        const P t272 = t259 + t271;
        const P t273 = t259 - t271;
        const P t274 = shuffled<0, 2>(t91, t109);
        const P t275 = shuffled<0, 2>(t210, t228);
        // complex block of 2
        const P t276 = t274 + t275;
        const P t277 = t274 - t275;
        const P t278 = shuffled<1, 3>(t91, t109);
        const P t279 = shuffled<1, 3>(t210, t228);
        // complex block of 2
        const P t280 = t278 + t279;
        const P t281 = t278 - t279;
        // complex block of 2
        const P t282 = t276 + t280;
        const P t283 = t276 - t280;
        const P t284 = shuffled<1, 0>(t281);
        const P t285 = flipped<0, 1>(t284);
        // complex block of 2
        const P t286 = t277 + t285;
        const P t287 = t277 - t285;
        const P t288 = shuffled<0, 2>(t90, t110);
        const P t289 = shuffled<0, 2>(t209, t229);
        // complex block of 2
        const P t290 = t288 + t289;
        const P t291 = shuffled<0, 3>(t288, t289);
        const P t292 = shuffled<0, 3>(t289, t288);
        const P t293 = t291 - t292;
        const P t294 = shuffled<1, 3>(t90, t110);
        const P t295 = shuffled<1, 3>(t209, t229);
        // complex block of 2
        const P t296 = t294 + t295;
        const P t297 = shuffled<0, 3>(t294, t295);
        const P t298 = shuffled<0, 3>(t295, t294);
        const P t299 = t297 - t298;
        // complex block of 2
        const P t300 = t290 + t296;
        const P t301 = shuffled<0, 3>(t290, t296);
        const P t302 = shuffled<0, 3>(t296, t290);
        const P t303 = t301 - t302;
        const P t304 = shuffled<1, 0>(t299);
        const P t305 = flipped<0, 1>(t304);
        // complex block of 2
        const P t306 = t293 + t305;
        const P t307 = t293 - t305;
        const P t308 = shuffled<0, 2>(t92, t117);
        const P t309 = shuffled<0, 2>(t211, t236);
        // complex block of 2
        const P t310 = t308 + t309;
        const P t311 = shuffled<0, 3>(t308, t309);
        const P t312 = shuffled<0, 3>(t309, t308);
        const P t313 = t311 - t312;
        const P t314 = shuffled<1, 3>(t92, t117);
        const P t315 = shuffled<1, 3>(t211, t236);
        // complex block of 2
        const P t316 = t314 + t315;
        const P t317 = shuffled<0, 3>(t314, t315);
        const P t318 = shuffled<0, 3>(t315, t314);
        const P t319 = t317 - t318;
        // complex block of 2
        const P t320 = t310 + t316;
        const P t321 = shuffled<0, 3>(t310, t316);
        const P t322 = shuffled<0, 3>(t316, t310);
        const P t323 = t321 - t322;
        const P t324 = shuffled<1, 0>(t319);
        const P t325 = flipped<0, 1>(t324);
        // complex block of 2
        const P t326 = t313 + t325;
        const P t327 = t313 - t325;
        const P t328 = shuffled<0, 2>(t96, t111);
        const P t329 = shuffled<0, 2>(t215, t230);
        // complex block of 2
        const P t330 = t328 + t329;
        const P t331 = t328 - t329;
        const P t332 = shuffled<1, 3>(t96, t111);
        const P t333 = shuffled<1, 3>(t215, t230);
        // complex block of 2
        const P t334 = t332 + t333;
        const P t335 = t332 - t333;
        // complex block of 2
        const P t336 = t330 + t334;
        const P t337 = t330 - t334;
        const P t338 = shuffled<1, 0>(t335);
        const P t339 = flipped<0, 1>(t338);
        // complex block of 2
        const P t340 = t331 + t339;
        const P t341 = t331 - t339;
        const P t342 = shuffled<0, 2>(t238, t239);
        const P t343 = shuffled<1, 3>(t238, t239);
        // real block of 2
        const P t344 = t342 + t343;
        io.out(0, 13, t344);
        const P t345 = t342 - t343;
        io.out(26, 39, t345);
        const P t346 = shuffled<0, 2>(t282, t283);
        const P t347 = shuffled<1, 3>(t282, t283);
        // output stage
        const P t348 = t346 + t347;
        io.out(40, 14, t348);
        const P t349 = t346 - t347;
        io.out(12, 38, t349);
        const P t350 = shuffled<0, 2>(t340, t341);
        const P t351 = shuffled<1, 3>(t340, t341);
        const P t352 = t350 + t351;
        io.out(15, 41, t352);
        const P t353 = t350 - t351;
        io.out(37, 11, t353);
        const P t354 = shuffled<0, 2>(t300, t303);
        const P t355 = shuffled<1, 3>(t300, t303);
        const P t356 = t354 + t355;
        io.out(16, 10, t356);
        const P t357 = t354 - t355;
        io.out(36, 42, t357);
        const P t358 = shuffled<0, 2>(t252, t253);
        const P t359 = shuffled<1, 3>(t252, t253);
        const P t360 = t358 - t359;
        io.out(17, 43, t360);
        const P t361 = t358 + t359;
        io.out(35, 9, t361);
        const P t362 = shuffled<0, 2>(t266, t269);
        const P t363 = shuffled<1, 3>(t266, t269);
        const P t364 = t362 + t363;
        io.out(8, 18, t364);
        const P t365 = t362 - t363;
        io.out(44, 34, t365);
        const P t366 = shuffled<0, 2>(t326, t327);
        const P t367 = shuffled<1, 3>(t326, t327);
        const P t368 = t366 + t367;
        io.out(19, 45, t368);
        const P t369 = t366 - t367;
        io.out(33, 7, t369);
        const P t370 = shuffled<0, 2>(t320, t323);
        const P t371 = shuffled<1, 3>(t320, t323);
        const P t372 = t370 + t371;
        io.out(20, 6, t372);
        const P t373 = t370 - t371;
        io.out(32, 46, t373);
        const P t374 = shuffled<0, 2>(t272, t273);
        const P t375 = shuffled<1, 3>(t272, t273);
        const P t376 = t374 - t375;
        io.out(21, 47, t376);
        const P t377 = t374 + t375;
        io.out(31, 5, t377);
        const P t378 = shuffled<0, 2>(t248, t249);
        const P t379 = shuffled<1, 3>(t248, t249);
        const P t380 = t378 + t379;
        io.out(48, 22, t380);
        const P t381 = t378 - t379;
        io.out(4, 30, t381);
        const P t382 = shuffled<0, 2>(t306, t307);
        const P t383 = shuffled<1, 3>(t306, t307);
        const P t384 = t382 + t383;
        io.out(23, 49, t384);
        const P t385 = t382 - t383;
        io.out(29, 3, t385);
        const P t386 = shuffled<0, 2>(t336, t337);
        const P t387 = shuffled<1, 3>(t336, t337);
        const P t388 = t386 - t387;
        io.out(24, 50, t388);
        const P t389 = t386 + t387;
        io.out(28, 2, t389);
        const P t390 = shuffled<0, 2>(t286, t287);
        const P t391 = shuffled<1, 3>(t286, t287);
        const P t392 = t390 - t391;
        io.out(25, 51, t392);
        const P t393 = t390 + t391;
        io.out(27, 1, t393);
    }
};

}  // namespace zulg
