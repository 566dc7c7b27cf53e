// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 56.
// Forward DFT of 56 real points, prime-factor 7, 8; two lanes to a register.
// 100 sums, 88 differences, 80 products of registers, which do the 582 steps of the graph, those with
// `scale` included; 61 shuffles, 25 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<56> {
    static constexpr int steps = 582;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 4/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.7071067811865476,  // c[6]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x8_15 = io.in(8, 15);
        const P x48_55 = io.in(48, 55);
        // real block of 7
        const P t0 = x8_15 + x48_55;
        const P t1 = x8_15 - x48_55;
        const P x40_47 = io.in(40, 47);
        const P x16_23 = io.in(16, 23);
        const P t2 = x40_47 + x16_23;
        const P t3 = x40_47 - x16_23;
        const P x32_39 = io.in(32, 39);
        const P x24_31 = io.in(24, 31);
        const P t4 = x32_39 + x24_31;
        const P t5 = x32_39 - x24_31;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x0_7 = io.in(0, 7);
        const P t8 = t7 + x0_7;
        const P t9 = c[0] * t0;
        const P t10 = c[1] * t2;
        const P t11 = t9 - t10;
        const P t12 = c[2] * t4;
        const P t13 = t11 - t12;
        const P t14 = t13 + x0_7;
        const P t15 = c[3] * t3;
        const P t16 = c[4] * t5;
        const P t17 = t15 + t16;
        const P t18 = c[5] * t1;
        const P t19 = t17 - t18;
        const P t20 = c[1] * t0;
        const P t21 = x0_7 - t20;
        const P t22 = c[2] * t2;
        const P t23 = t21 - t22;
        const P t24 = c[0] * t4;
        const P t25 = t23 + t24;
        const P t26 = c[3] * t1;
        const P t27 = c[4] * t3;
        const P t28 = t26 + t27;
        const P t29 = c[5] * t5;
        const P t30 = t28 + t29;
        const P t31 = c[2] * t0;
        const P t32 = x0_7 - t31;
        const P t33 = c[0] * t2;
        const P t34 = t32 + t33;
        const P t35 = c[1] * t4;
        const P t36 = t34 - t35;
        const P t37 = c[3] * t5;
        const P t38 = c[4] * t1;
        const P t39 = t37 - t38;
        const P t40 = c[5] * t3;
        const P t41 = t39 - t40;
        const P x22_29 = io.in(22, 29);
        const P x6_13 = io.in(6, 13);
        // real block of 7
        const P t42 = x22_29 + x6_13;
        const P t43 = x22_29 - x6_13;
        const P x54_5 = io.in(54, 5);
        const P x30_37 = io.in(30, 37);
        const P t44 = x54_5 + x30_37;
        const P t45 = x54_5 - x30_37;
        const P x46_53 = io.in(46, 53);
        const P x38_45 = io.in(38, 45);
        const P t46 = x46_53 + x38_45;
        const P t47 = x46_53 - x38_45;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P x14_21 = io.in(14, 21);
        const P t50 = t49 + x14_21;
        const P t51 = c[0] * t42;
        const P t52 = c[1] * t44;
        const P t53 = t51 - t52;
        const P t54 = c[2] * t46;
        const P t55 = t53 - t54;
        const P t56 = t55 + x14_21;
        const P t57 = c[3] * t45;
        const P t58 = c[4] * t47;
        const P t59 = t57 + t58;
        const P t60 = c[5] * t43;
        const P t61 = t59 - t60;
        const P t62 = c[1] * t42;
        const P t63 = x14_21 - t62;
        const P t64 = c[2] * t44;
        const P t65 = t63 - t64;
        const P t66 = c[0] * t46;
        const P t67 = t65 + t66;
        const P t68 = c[3] * t43;
        const P t69 = c[4] * t45;
        const P t70 = t68 + t69;
        const P t71 = c[5] * t47;
        const P t72 = t70 + t71;
        const P t73 = c[2] * t42;
        const P t74 = x14_21 - t73;
        const P t75 = c[0] * t44;
        const P t76 = t74 + t75;
        const P t77 = c[1] * t46;
        const P t78 = t76 - t77;
        const P t79 = c[3] * t47;
        const P t80 = c[4] * t43;
        const P t81 = t79 - t80;
        const P t82 = c[5] * t45;
        const P t83 = t81 - t82;
        const P x36_43 = io.in(36, 43);
        const P x20_27 = io.in(20, 27);
        // real block of 7
        const P t84 = x36_43 + x20_27;
        const P t85 = x36_43 - x20_27;
        const P x12_19 = io.in(12, 19);
        const P x44_51 = io.in(44, 51);
        const P t86 = x12_19 + x44_51;
        const P t87 = x12_19 - x44_51;
        const P x4_11 = io.in(4, 11);
        const P x52_3 = io.in(52, 3);
        const P t88 = x4_11 + x52_3;
        const P t89 = x4_11 - x52_3;
        const P t90 = t84 + t86;
        const P t91 = t90 + t88;
        const P x28_35 = io.in(28, 35);
        const P t92 = t91 + x28_35;
        const P t93 = c[0] * t84;
        const P t94 = c[1] * t86;
        const P t95 = t93 - t94;
        const P t96 = c[2] * t88;
        const P t97 = t95 - t96;
        const P t98 = t97 + x28_35;
        const P t99 = c[3] * t87;
        const P t100 = c[4] * t89;
        const P t101 = t99 + t100;
        const P t102 = c[5] * t85;
        const P t103 = t101 - t102;
        const P t104 = c[1] * t84;
        const P t105 = x28_35 - t104;
        const P t106 = c[2] * t86;
        const P t107 = t105 - t106;
        const P t108 = c[0] * t88;
        const P t109 = t107 + t108;
        const P t110 = c[3] * t85;
        const P t111 = c[4] * t87;
        const P t112 = t110 + t111;
        const P t113 = c[5] * t89;
        const P t114 = t112 + t113;
        const P t115 = c[2] * t84;
        const P t116 = x28_35 - t115;
        const P t117 = c[0] * t86;
        const P t118 = t116 + t117;
        const P t119 = c[1] * t88;
        const P t120 = t118 - t119;
        const P t121 = c[3] * t89;
        const P t122 = c[4] * t85;
        const P t123 = t121 - t122;
        const P t124 = c[5] * t87;
        const P t125 = t123 - t124;
        const P x50_1 = io.in(50, 1);
        const P x34_41 = io.in(34, 41);
        // real block of 7
        const P t126 = x50_1 + x34_41;
        const P t127 = x50_1 - x34_41;
        const P x26_33 = io.in(26, 33);
        const P x2_9 = io.in(2, 9);
        const P t128 = x26_33 + x2_9;
        const P t129 = x26_33 - x2_9;
        const P x18_25 = io.in(18, 25);
        const P x10_17 = io.in(10, 17);
        const P t130 = x18_25 + x10_17;
        const P t131 = x18_25 - x10_17;
        const P t132 = t126 + t128;
        const P t133 = t132 + t130;
        const P x42_49 = io.in(42, 49);
        const P t134 = t133 + x42_49;
        const P t135 = c[0] * t126;
        const P t136 = c[1] * t128;
        const P t137 = t135 - t136;
        const P t138 = c[2] * t130;
        const P t139 = t137 - t138;
        const P t140 = t139 + x42_49;
        const P t141 = c[3] * t129;
        const P t142 = c[4] * t131;
        const P t143 = t141 + t142;
        const P t144 = c[5] * t127;
        const P t145 = t143 - t144;
        const P t146 = c[1] * t126;
        const P t147 = x42_49 - t146;
        const P t148 = c[2] * t128;
        const P t149 = t147 - t148;
        const P t150 = c[0] * t130;
        const P t151 = t149 + t150;
        const P t152 = c[3] * t127;
        const P t153 = c[4] * t129;
        const P t154 = t152 + t153;
        const P t155 = c[5] * t131;
        const P t156 = t154 + t155;
        const P t157 = c[2] * t126;
        const P t158 = x42_49 - t157;
        const P t159 = c[0] * t128;
        const P t160 = t158 + t159;
        const P t161 = c[1] * t130;
        const P t162 = t160 - t161;
        const P t163 = c[3] * t131;
        const P t164 = c[4] * t127;
        const P t165 = t163 - t164;
        const P t166 = c[5] * t129;
        const P t167 = t165 - t166;
        // real block of 2
        const P t168 = t8 + t92;
        const P t169 = t8 - t92;
        // real block of 2
        const P t170 = t50 + t134;
        const P t171 = t50 - t134;
        // real block of 2
        const P t172 = t168 + t170;
        const P t173 = t168 - t170;
        io.pair(14, t173);
        const V t174 = part<0>(t172);
        const V t175 = part<1>(t172);
        // real block of 2
        const V t176 = t174 + t175;
        io.re(0, t176);
        const V t177 = t174 - t175;
        io.re(28, t177);
        const V t178 = part<1>(t169);
        const V t179 = part<1>(t171);
        // skew block of 4, multiplier 7
        const V t180 = t178 - t179;
        const V t181 = t178 + t179;
        const V t182 = part<0>(t171);
        const V t183 = c[6] * t181;
        const V t184 = t182 - t183;
        const V t185 = part<0>(t169);
        const V t186 = c[6] * t180;
        const V t187 = t185 + t186;
        const V t188 = t182 + t183;
        const P t189 = joined(t187, t188);
        io.pair(7, t189);
        const V t190 = t185 - t186;
        const V t191 = flipped<1>(t184);
        const P t192 = joined(t190, t191);
        io.pair(21, t192);
        const P t193 = shuffled<0, 2>(t14, t19);
        const P t194 = shuffled<0, 2>(t98, t103);
        // complex block of 2
        const P t195 = t193 + t194;
        const P t196 = t193 - t194;
        const P t197 = shuffled<1, 3>(t14, t19);
        const P t198 = shuffled<1, 3>(t98, t103);
        // complex block of 2
        const P t199 = t197 + t198;
        const P t200 = t197 - t198;
        const P t201 = shuffled<0, 2>(t56, t61);
        const P t202 = shuffled<0, 2>(t140, t145);
        // complex block of 2
        const P t203 = t201 + t202;
        const P t204 = t201 - t202;
        const P t205 = shuffled<1, 3>(t56, t61);
        const P t206 = shuffled<1, 3>(t140, t145);
        // complex block of 2
        const P t207 = t205 + t206;
        const P t208 = t205 - t206;
        // complex block of 2
        const P t209 = t195 + t203;
        const P t210 = t195 - t203;
        // complex block of 2
        const P t211 = t199 + t207;
        const P t212 = t199 - t207;
        // complex block of 2
        const P t213 = t209 + t211;
        io.pair(8, t213);
        const P t214 = t209 - t211;
        io.pair(20, negated<0, 1>(t214));
        const P t215 = shuffled<1, 0>(t212);
        const P t216 = flipped<1, 0>(t215);
        // complex block of 2
        const P t217 = t210 + t216;
        io.pair(22, t217);
        const P t218 = t210 - t216;
        io.pair(6, negated<0, 1>(t218));
        // complex block of 8, multiplier 7
        const P t219 = c[6] * t200;
        const P t220 = shuffled<1, 0>(t219);
        const P t221 = flipped<0, 1>(t220);
        const P t222 = t219 + t221;
        const P t223 = c[6] * t208;
        const P t224 = shuffled<1, 0>(t223);
        const P t225 = flipped<0, 1>(t224);
        const P t226 = t223 + t225;
        const P t227 = shuffled<1, 0>(t204);
        const P t228 = flipped<1, 0>(t227);
        // complex block of 2
        const P t229 = t196 + t228;
        const P t230 = t196 - t228;
        const P t231 = shuffled<1, 0>(t222);
        const P t232 = flipped<0, 1>(t226);
        // complex block of 2
        const P t233 = t231 + t232;
        const P t234 = flipped<1, 0>(t231);
        const P t235 = t234 + t226;
        const P t236 = flipped<1, 0>(t233);
        // complex block of 2
        const P t237 = t229 + t236;
        io.pair(15, t237);
        const P t238 = t229 - t236;
        io.pair(13, negated<0, 1>(t238));
        const P t239 = shuffled<1, 0>(t235);
        const P t240 = flipped<1, 0>(t239);
        // complex block of 2
        const P t241 = t230 + t240;
        io.pair(27, negated<0, 1>(t241));
        const P t242 = t230 - t240;
        io.pair(1, t242);
        const P t243 = shuffled<0, 2>(t25, t30);
        const P t244 = shuffled<0, 2>(t109, t114);
        // complex block of 2
        const P t245 = t243 + t244;
        const P t246 = shuffled<0, 3>(t243, t244);
        const P t247 = shuffled<0, 3>(t244, t243);
        const P t248 = t246 - t247;
        const P t249 = shuffled<1, 3>(t25, t30);
        const P t250 = shuffled<1, 3>(t109, t114);
        // complex block of 2
        const P t251 = t249 + t250;
        const P t252 = shuffled<0, 3>(t249, t250);
        const P t253 = shuffled<0, 3>(t250, t249);
        const P t254 = t252 - t253;
        const P t255 = shuffled<0, 2>(t67, t72);
        const P t256 = shuffled<0, 2>(t151, t156);
        // complex block of 2
        const P t257 = t255 + t256;
        const P t258 = shuffled<0, 3>(t255, t256);
        const P t259 = shuffled<0, 3>(t256, t255);
        const P t260 = t258 - t259;
        const P t261 = shuffled<1, 3>(t67, t72);
        const P t262 = shuffled<1, 3>(t151, t156);
        // complex block of 2
        const P t263 = t261 + t262;
        const P t264 = shuffled<0, 3>(t261, t262);
        const P t265 = shuffled<0, 3>(t262, t261);
        const P t266 = t264 - t265;
        // complex block of 2
        const P t267 = t245 + t257;
        const P t268 = shuffled<0, 3>(t245, t257);
        const P t269 = shuffled<0, 3>(t257, t245);
        const P t270 = t268 - t269;
        // complex block of 2
        const P t271 = t251 + t263;
        const P t272 = shuffled<0, 3>(t251, t263);
        const P t273 = shuffled<0, 3>(t263, t251);
        const P t274 = t272 - t273;
        // complex block of 2
        const P t275 = t267 + t271;
        io.pair(16, negated<0, 1>(t275));
        const P t276 = shuffled<0, 3>(t267, t271);
        const P t277 = shuffled<0, 3>(t271, t267);
        const P t278 = t276 - t277;
        io.pair(12, negated<0, 1>(t278));
        const P t279 = shuffled<1, 0>(t274);
        const P t280 = flipped<1, 0>(t279);
        // complex block of 2
        const P t281 = t270 + t280;
        io.pair(26, negated<0, 1>(t281));
        const P t282 = t270 - t280;
        io.pair(2, t282);
        // complex block of 8, multiplier 7
        const P t283 = c[6] * t254;
        const P t284 = shuffled<1, 0>(t283);
        const P t285 = flipped<0, 1>(t284);
        const P t286 = t283 + t285;
        const P t287 = c[6] * t266;
        const P t288 = shuffled<1, 0>(t287);
        const P t289 = flipped<0, 1>(t288);
        const P t290 = t287 + t289;
        const P t291 = shuffled<1, 0>(t260);
        const P t292 = flipped<1, 0>(t291);
        // complex block of 2
        const P t293 = t248 + t292;
        const P t294 = t248 - t292;
        const P t295 = shuffled<1, 0>(t286);
        const P t296 = flipped<0, 1>(t290);
        // complex block of 2
        const P t297 = t295 + t296;
        const P t298 = flipped<1, 0>(t295);
        const P t299 = t298 + t290;
        const P t300 = flipped<1, 0>(t297);
        // complex block of 2
        const P t301 = t293 + t300;
        io.pair(23, t301);
        const P t302 = t293 - t300;
        io.pair(5, negated<0, 1>(t302));
        const P t303 = shuffled<1, 0>(t299);
        const P t304 = flipped<1, 0>(t303);
        // complex block of 2
        const P t305 = t294 + t304;
        io.pair(19, negated<0, 1>(t305));
        const P t306 = t294 - t304;
        io.pair(9, t306);
        const P t307 = shuffled<0, 2>(t36, t41);
        const P t308 = shuffled<0, 2>(t120, t125);
        // complex block of 2
        const P t309 = t307 + t308;
        const P t310 = t307 - t308;
        const P t311 = shuffled<1, 3>(t36, t41);
        const P t312 = shuffled<1, 3>(t120, t125);
        // complex block of 2
        const P t313 = t311 + t312;
        const P t314 = t311 - t312;
        const P t315 = shuffled<0, 2>(t78, t83);
        const P t316 = shuffled<0, 2>(t162, t167);
        // complex block of 2
        const P t317 = t315 + t316;
        const P t318 = t315 - t316;
        const P t319 = shuffled<1, 3>(t78, t83);
        const P t320 = shuffled<1, 3>(t162, t167);
        // complex block of 2
        const P t321 = t319 + t320;
        const P t322 = t319 - t320;
        // complex block of 2
        const P t323 = t309 + t317;
        const P t324 = t309 - t317;
        // complex block of 2
        const P t325 = t313 + t321;
        const P t326 = t313 - t321;
        // complex block of 2
        const P t327 = t323 + t325;
        io.pair(24, t327);
        const P t328 = t323 - t325;
        io.pair(4, negated<0, 1>(t328));
        const P t329 = shuffled<1, 0>(t326);
        const P t330 = flipped<1, 0>(t329);
        // complex block of 2
        const P t331 = t324 + t330;
        io.pair(18, negated<0, 1>(t331));
        const P t332 = t324 - t330;
        io.pair(10, t332);
        // complex block of 8, multiplier 7
        const P t333 = c[6] * t314;
        const P t334 = shuffled<1, 0>(t333);
        const P t335 = flipped<0, 1>(t334);
        const P t336 = t333 + t335;
        const P t337 = c[6] * t322;
        const P t338 = shuffled<1, 0>(t337);
        const P t339 = flipped<0, 1>(t338);
        const P t340 = t337 + t339;
        const P t341 = shuffled<1, 0>(t318);
        const P t342 = flipped<1, 0>(t341);
        // complex block of 2
        const P t343 = t310 + t342;
        const P t344 = t310 - t342;
        const P t345 = shuffled<1, 0>(t336);
        const P t346 = flipped<0, 1>(t340);
        // complex block of 2
        const P t347 = t345 + t346;
        const P t348 = flipped<1, 0>(t345);
        const P t349 = t348 + t340;
        const P t350 = flipped<1, 0>(t347);
        // complex block of 2
        const P t351 = t343 + t350;
        io.pair(25, negated<0, 1>(t351));
        const P t352 = t343 - t350;
        io.pair(3, t352);
        const P t353 = shuffled<1, 0>(t349);
        const P t354 = flipped<1, 0>(t353);
        // complex block of 2
        const P t355 = t344 + t354;
        io.pair(11, negated<0, 1>(t355));
        const P t356 = t344 - t354;
        io.pair(17, t356);
    }
};

}  // namespace zulg
