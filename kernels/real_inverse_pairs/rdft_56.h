// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 56.
// Inverse DFT to 56 real points, prime-factor 8, 7; two lanes to a register.
// 106 sums, 82 differences, 107 products of registers, which do the 636 steps of the graph, those with
// `scale` included; 47 shuffles, 34 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<56> {
    static constexpr int steps = 636;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 1/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 3/7
        0.7071067811865476,  // c[7]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x28r = io.re(28);
        // spectrum block of 2
        const V t0 = x0r + x28r;
        const V t1 = x0r - x28r;
        const P t2 = joined(t0, t1);
        const P x14 = io.pair(14);
        // doubled bins
        const P t3 = c[0] * x14;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x7 = io.pair(7);
        // doubled bins
        const P t6 = c[0] * x7;
        const V t7 = part<0>(t6);
        const P x21 = io.pair(21);
        const P t8 = c[0] * x21;
        const V t9 = part<0>(t8);
        // mirrored skew block of 4, multiplier 7
        const V t10 = t7 - t9;
        const V t11 = part<1>(t6);
        const V t12 = part<1>(t8);
        const V t13 = t11 + t12;
        const V t14 = t7 + t9;
        const V t15 = c[7] * t10;
        const V t16 = c[7] * t13;
        const V t17 = t15 + t16;
        const V t18 = t12 - t11;
        const V t19 = t15 - t16;
        const P t20 = joined(t14, t17);
        // spectrum block of 2
        const P t21 = t4 + t20;
        const P t22 = t4 - t20;
        const P t23 = joined(t18, t19);
        // spectrum block of 2
        const P t24 = t5 - t23;
        const P t25 = t5 + t23;
        const P x8 = io.pair(8);
        // doubled bins
        const P t26 = c[0] * x8;
        const P x20 = io.pair(20);
        const P t27 = P(c[0], -c[0]) * x20;
        // complex block of 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P x15 = io.pair(15);
        // doubled bins
        const P t30 = c[0] * x15;
        const P x13 = io.pair(13);
        const P t31 = P(c[0], -c[0]) * x13;
        // complex block of 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P x22 = io.pair(22);
        // doubled bins
        const P t34 = c[0] * x22;
        const P x6 = io.pair(6);
        const P t35 = P(c[0], -c[0]) * x6;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P x1 = io.pair(1);
        // doubled bins
        const P t38 = c[0] * x1;
        const P x27 = io.pair(27);
        const P t39 = P(c[0], -c[0]) * x27;
        // complex block of 2
        const P t40 = t38 + t39;
        const P t41 = flipped<0, 1>(t39);
        const P t42 = flipped<1, 0>(t38);
        const P t43 = t41 + t42;
        // complex block of 2
        const P t44 = t28 + t36;
        const P t45 = t28 - t36;
        // complex block of 2
        const P t46 = t32 + t40;
        const P t47 = t32 - t40;
        // complex block of 2
        const P t48 = t44 + t46;
        const P t49 = t44 - t46;
        const P t50 = shuffled<1, 0>(t47);
        const P t51 = flipped<0, 1>(t50);
        // complex block of 2
        const P t52 = t45 + t51;
        const P t53 = t45 - t51;
        // complex block of 8, multiplier 7
        const P t54 = c[7] * t33;
        const P t55 = shuffled<1, 0>(t54);
        const P t56 = flipped<1, 0>(t55);
        const P t57 = t54 + t56;
        const P t58 = c[7] * t43;
        const P t59 = shuffled<1, 0>(t58);
        const P t60 = flipped<0, 1>(t58);
        const P t61 = t59 + t60;
        const P t62 = shuffled<1, 0>(t37);
        const P t63 = flipped<0, 1>(t62);
        // complex block of 2
        const P t64 = t29 + t63;
        const P t65 = t29 - t63;
        const P t66 = shuffled<1, 0>(t57);
        const P t67 = flipped<1, 0>(t61);
        // complex block of 2
        const P t68 = t66 + t67;
        const P t69 = flipped<0, 1>(t66);
        const P t70 = t61 + t69;
        const P t71 = flipped<0, 1>(t68);
        // complex block of 2
        const P t72 = t64 + t71;
        const P t73 = t64 - t71;
        const P t74 = shuffled<1, 0>(t70);
        const P t75 = flipped<0, 1>(t74);
        // complex block of 2
        const P t76 = t65 + t75;
        const P t77 = t65 - t75;
        const P x16 = io.pair(16);
        // doubled bins
        const P t78 = c[0] * x16;
        const P x12 = io.pair(12);
        const P t79 = P(c[0], -c[0]) * x12;
        // complex block of 2
        const P t80 = t78 + t79;
        const P t81 = t78 - t79;
        const P x23 = io.pair(23);
        // doubled bins
        const P t82 = c[0] * x23;
        const P x5 = io.pair(5);
        const P t83 = P(c[0], -c[0]) * x5;
        // complex block of 2
        const P t84 = t82 + t83;
        const P t85 = t82 - t83;
        const P x2 = io.pair(2);
        // doubled bins
        const P t86 = c[0] * x2;
        const P x26 = io.pair(26);
        const P t87 = P(c[0], -c[0]) * x26;
        // complex block of 2
        const P t88 = t86 + t87;
        const P t89 = flipped<0, 1>(t87);
        const P t90 = flipped<1, 0>(t86);
        const P t91 = t89 + t90;
        const P x9 = io.pair(9);
        // doubled bins
        const P t92 = c[0] * x9;
        const P x19 = io.pair(19);
        const P t93 = P(c[0], -c[0]) * x19;
        // complex block of 2
        const P t94 = t92 + t93;
        const P t95 = flipped<0, 1>(t93);
        const P t96 = flipped<1, 0>(t92);
        const P t97 = t95 + t96;
        // complex block of 2
        const P t98 = t80 + t88;
        const P t99 = t80 - t88;
        // complex block of 2
        const P t100 = t84 + t94;
        const P t101 = t84 - t94;
        // complex block of 2
        const P t102 = t98 + t100;
        const P t103 = t98 - t100;
        const P t104 = shuffled<1, 0>(t101);
        const P t105 = flipped<0, 1>(t104);
        // complex block of 2
        const P t106 = t99 + t105;
        const P t107 = t99 - t105;
        // complex block of 8, multiplier 7
        const P t108 = c[7] * t85;
        const P t109 = shuffled<1, 0>(t108);
        const P t110 = flipped<1, 0>(t109);
        const P t111 = t108 + t110;
        const P t112 = c[7] * t97;
        const P t113 = shuffled<1, 0>(t112);
        const P t114 = flipped<0, 1>(t112);
        const P t115 = t113 + t114;
        const P t116 = shuffled<1, 0>(t91);
        // complex block of 2
        const P t117 = t81 - t116;
        const P t118 = t81 + t116;
        const P t119 = shuffled<1, 0>(t111);
        const P t120 = flipped<1, 0>(t115);
        // complex block of 2
        const P t121 = t119 + t120;
        const P t122 = flipped<0, 1>(t119);
        const P t123 = t115 + t122;
        const P t124 = flipped<0, 1>(t121);
        // complex block of 2
        const P t125 = t117 + t124;
        const P t126 = t117 - t124;
        const P t127 = shuffled<1, 0>(t123);
        const P t128 = flipped<0, 1>(t127);
        // complex block of 2
        const P t129 = t118 + t128;
        const P t130 = t118 - t128;
        const P x24 = io.pair(24);
        // doubled bins
        const P t131 = c[0] * x24;
        const P x4 = io.pair(4);
        const P t132 = P(c[0], -c[0]) * x4;
        // complex block of 2
        const P t133 = t131 + t132;
        const P t134 = t131 - t132;
        const P x3 = io.pair(3);
        // doubled bins
        const P t135 = c[0] * x3;
        const P x25 = io.pair(25);
        const P t136 = P(c[0], -c[0]) * x25;
        // complex block of 2
        const P t137 = t135 + t136;
        const P t138 = flipped<0, 1>(t136);
        const P t139 = flipped<1, 0>(t135);
        const P t140 = t138 + t139;
        const P x10 = io.pair(10);
        // doubled bins
        const P t141 = c[0] * x10;
        const P x18 = io.pair(18);
        const P t142 = P(c[0], -c[0]) * x18;
        // complex block of 2
        const P t143 = t141 + t142;
        const P t144 = flipped<0, 1>(t142);
        const P t145 = flipped<1, 0>(t141);
        const P t146 = t144 + t145;
        const P x17 = io.pair(17);
        // doubled bins
        const P t147 = c[0] * x17;
        const P x11 = io.pair(11);
        const P t148 = P(c[0], -c[0]) * x11;
        // complex block of 2
        const P t149 = t147 + t148;
        const P t150 = flipped<0, 1>(t148);
        const P t151 = flipped<1, 0>(t147);
        const P t152 = t150 + t151;
        // complex block of 2
        const P t153 = t133 + t143;
        const P t154 = t133 - t143;
        // complex block of 2
        const P t155 = t137 + t149;
        const P t156 = t137 - t149;
        // complex block of 2
        const P t157 = t153 + t155;
        const P t158 = t153 - t155;
        const P t159 = shuffled<1, 0>(t156);
        const P t160 = flipped<0, 1>(t159);
        // complex block of 2
        const P t161 = t154 + t160;
        const P t162 = t154 - t160;
        // complex block of 8, multiplier 7
        const P t163 = c[7] * t140;
        const P t164 = shuffled<1, 0>(t163);
        const P t165 = flipped<0, 1>(t163);
        const P t166 = t164 + t165;
        const P t167 = c[7] * t152;
        const P t168 = shuffled<1, 0>(t167);
        const P t169 = flipped<0, 1>(t167);
        const P t170 = t168 + t169;
        const P t171 = shuffled<1, 0>(t146);
        // complex block of 2
        const P t172 = t134 - t171;
        const P t173 = t134 + t171;
        const P t174 = shuffled<1, 0>(t166);
        const P t175 = flipped<1, 0>(t170);
        // complex block of 2
        const P t176 = t174 + t175;
        const P t177 = flipped<0, 1>(t174);
        const P t178 = t170 + t177;
        const P t179 = flipped<0, 1>(t176);
        // complex block of 2
        const P t180 = t172 + t179;
        const P t181 = t172 - t179;
        const P t182 = shuffled<1, 0>(t178);
        const P t183 = flipped<0, 1>(t182);
        // complex block of 2
        const P t184 = t173 + t183;
        const P t185 = t173 - t183;
        const P t186 = shuffled<0, 2>(t48, t72);
        const P t187 = shuffled<0, 2>(t102, t125);
        // spectrum block of 7
        const P t188 = t186 + t187;
        const P t189 = shuffled<0, 2>(t157, t180);
        const P t190 = t188 + t189;
        const P t191 = t190 + t21;
        io.out(0, 7, t191);
        const P t192 = c[1] * t186;
        const P t193 = c[2] * t187;
        const P t194 = t192 - t193;
        const P t195 = c[3] * t189;
        const P t196 = t194 - t195;
        const P t197 = t196 + t21;
        const P t198 = shuffled<1, 3>(t48, t72);
        const P t199 = c[4] * t198;
        const P t200 = shuffled<1, 3>(t102, t125);
        const P t201 = c[5] * t200;
        const P t202 = t199 + t201;
        const P t203 = shuffled<1, 3>(t157, t180);
        const P t204 = c[6] * t203;
        const P t205 = t202 + t204;
        const P t206 = t197 - t205;
        io.out(8, 15, t206);
        const P t207 = t197 + t205;
        io.out(48, 55, t207);
        const P t208 = c[2] * t186;
        const P t209 = t21 - t208;
        const P t210 = c[3] * t187;
        const P t211 = t209 - t210;
        const P t212 = c[1] * t189;
        const P t213 = t211 + t212;
        const P t214 = c[5] * t198;
        const P t215 = c[6] * t200;
        const P t216 = t214 - t215;
        const P t217 = c[4] * t203;
        const P t218 = t216 - t217;
        const P t219 = t213 - t218;
        io.out(16, 23, t219);
        const P t220 = t213 + t218;
        io.out(40, 47, t220);
        const P t221 = c[3] * t186;
        const P t222 = t21 - t221;
        const P t223 = c[1] * t187;
        const P t224 = t222 + t223;
        const P t225 = c[2] * t189;
        const P t226 = t224 - t225;
        const P t227 = c[6] * t198;
        const P t228 = c[4] * t200;
        const P t229 = t227 - t228;
        const P t230 = c[5] * t203;
        const P t231 = t229 + t230;
        const P t232 = t226 - t231;
        io.out(24, 31, t232);
        const P t233 = t226 + t231;
        io.out(32, 39, t233);
        const P t234 = shuffled<0, 2>(t52, t76);
        const P t235 = shuffled<0, 2>(t106, t129);
        // spectrum block of 7
        const P t236 = t234 + t235;
        const P t237 = shuffled<0, 2>(t161, t184);
        const P t238 = t236 + t237;
        const P t239 = t238 + t24;
        io.out(14, 21, t239);
        const P t240 = c[1] * t234;
        const P t241 = c[2] * t235;
        const P t242 = t240 - t241;
        const P t243 = c[3] * t237;
        const P t244 = t242 - t243;
        const P t245 = t244 + t24;
        const P t246 = shuffled<1, 3>(t52, t76);
        const P t247 = c[4] * t246;
        const P t248 = shuffled<1, 3>(t106, t129);
        const P t249 = c[5] * t248;
        const P t250 = t247 + t249;
        const P t251 = shuffled<1, 3>(t161, t184);
        const P t252 = c[6] * t251;
        const P t253 = t250 + t252;
        const P t254 = t245 - t253;
        io.out(22, 29, t254);
        const P t255 = t245 + t253;
        io.out(6, 13, t255);
        const P t256 = c[2] * t234;
        const P t257 = t24 - t256;
        const P t258 = c[3] * t235;
        const P t259 = t257 - t258;
        const P t260 = c[1] * t237;
        const P t261 = t259 + t260;
        const P t262 = c[5] * t246;
        const P t263 = c[6] * t248;
        const P t264 = t262 - t263;
        const P t265 = c[4] * t251;
        const P t266 = t264 - t265;
        const P t267 = t261 - t266;
        io.out(30, 37, t267);
        const P t268 = t261 + t266;
        io.out(54, 5, t268);
        const P t269 = c[3] * t234;
        const P t270 = t24 - t269;
        const P t271 = c[1] * t235;
        const P t272 = t270 + t271;
        const P t273 = c[2] * t237;
        const P t274 = t272 - t273;
        const P t275 = c[6] * t246;
        const P t276 = c[4] * t248;
        const P t277 = t275 - t276;
        const P t278 = c[5] * t251;
        const P t279 = t277 + t278;
        const P t280 = t274 - t279;
        io.out(38, 45, t280);
        const P t281 = t274 + t279;
        io.out(46, 53, t281);
        const P t282 = shuffled<0, 2>(t49, t73);
        const P t283 = shuffled<0, 2>(t103, t126);
        // spectrum block of 7
        const P t284 = t282 + t283;
        const P t285 = shuffled<0, 2>(t158, t181);
        const P t286 = t284 + t285;
        const P t287 = t286 + t22;
        io.out(28, 35, t287);
        const P t288 = c[1] * t282;
        const P t289 = c[2] * t283;
        const P t290 = t288 - t289;
        const P t291 = c[3] * t285;
        const P t292 = t290 - t291;
        const P t293 = t292 + t22;
        const P t294 = shuffled<1, 3>(t49, t73);
        const P t295 = c[4] * t294;
        const P t296 = shuffled<1, 3>(t103, t126);
        const P t297 = c[5] * t296;
        const P t298 = t295 + t297;
        const P t299 = shuffled<1, 3>(t158, t181);
        const P t300 = c[6] * t299;
        const P t301 = t298 + t300;
        const P t302 = t293 - t301;
        io.out(36, 43, t302);
        const P t303 = t293 + t301;
        io.out(20, 27, t303);
        const P t304 = c[2] * t282;
        const P t305 = t22 - t304;
        const P t306 = c[3] * t283;
        const P t307 = t305 - t306;
        const P t308 = c[1] * t285;
        const P t309 = t307 + t308;
        const P t310 = c[5] * t294;
        const P t311 = c[6] * t296;
        const P t312 = t310 - t311;
        const P t313 = c[4] * t299;
        const P t314 = t312 - t313;
        const P t315 = t309 - t314;
        io.out(44, 51, t315);
        const P t316 = t309 + t314;
        io.out(12, 19, t316);
        const P t317 = c[3] * t282;
        const P t318 = t22 - t317;
        const P t319 = c[1] * t283;
        const P t320 = t318 + t319;
        const P t321 = c[2] * t285;
        const P t322 = t320 - t321;
        const P t323 = c[6] * t294;
        const P t324 = c[4] * t296;
        const P t325 = t323 - t324;
        const P t326 = c[5] * t299;
        const P t327 = t325 + t326;
        const P t328 = t322 - t327;
        io.out(52, 3, t328);
        const P t329 = t322 + t327;
        io.out(4, 11, t329);
        const P t330 = shuffled<0, 2>(t53, t77);
        const P t331 = shuffled<0, 2>(t107, t130);
        // spectrum block of 7
        const P t332 = t330 + t331;
        const P t333 = shuffled<0, 2>(t162, t185);
        const P t334 = t332 + t333;
        const P t335 = t334 + t25;
        io.out(42, 49, t335);
        const P t336 = c[1] * t330;
        const P t337 = c[2] * t331;
        const P t338 = t336 - t337;
        const P t339 = c[3] * t333;
        const P t340 = t338 - t339;
        const P t341 = t340 + t25;
        const P t342 = shuffled<1, 3>(t53, t77);
        const P t343 = c[4] * t342;
        const P t344 = shuffled<1, 3>(t107, t130);
        const P t345 = c[5] * t344;
        const P t346 = t343 + t345;
        const P t347 = shuffled<1, 3>(t162, t185);
        const P t348 = c[6] * t347;
        const P t349 = t346 + t348;
        const P t350 = t341 - t349;
        io.out(50, 1, t350);
        const P t351 = t341 + t349;
        io.out(34, 41, t351);
        const P t352 = c[2] * t330;
        const P t353 = t25 - t352;
        const P t354 = c[3] * t331;
        const P t355 = t353 - t354;
        const P t356 = c[1] * t333;
        const P t357 = t355 + t356;
        const P t358 = c[5] * t342;
        const P t359 = c[6] * t344;
        const P t360 = t358 - t359;
        const P t361 = c[4] * t347;
        const P t362 = t360 - t361;
        const P t363 = t357 - t362;
        io.out(2, 9, t363);
        const P t364 = t357 + t362;
        io.out(26, 33, t364);
        const P t365 = c[3] * t330;
        const P t366 = t25 - t365;
        const P t367 = c[1] * t331;
        const P t368 = t366 + t367;
        const P t369 = c[2] * t333;
        const P t370 = t368 - t369;
        const P t371 = c[6] * t342;
        const P t372 = c[4] * t344;
        const P t373 = t371 - t372;
        const P t374 = c[5] * t347;
        const P t375 = t373 + t374;
        const P t376 = t370 - t375;
        io.out(10, 17, t376);
        const P t377 = t370 + t375;
        io.out(18, 25, t377);
    }
};

}  // namespace zulg
