// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 56.
// Hartley transform of 56 points, form I; two lanes to a register.
// 114 sums, 102 differences, 80 products of registers, which do the 636 steps of the graph, those with
// `scale` included; 70 shuffles, 34 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<56> {
    static constexpr int steps = 636;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.7071067811865476,  // c[6]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x55_54 = io.in(55, 54);
        // input stage
        const P t0 = x1_2 + x55_54;
        const P t1 = x1_2 - x55_54;
        const P x3_4 = io.in(3, 4);
        const P x53_52 = io.in(53, 52);
        const P t2 = x3_4 + x53_52;
        const P t3 = x3_4 - x53_52;
        const P x5_6 = io.in(5, 6);
        const P x51_50 = io.in(51, 50);
        const P t4 = x5_6 + x51_50;
        const P t5 = x5_6 - x51_50;
        const P x7_8 = io.in(7, 8);
        const P x49_48 = io.in(49, 48);
        const P t6 = x7_8 + x49_48;
        const P t7 = x7_8 - x49_48;
        const P x9_10 = io.in(9, 10);
        const P x47_46 = io.in(47, 46);
        const P t8 = x9_10 + x47_46;
        const P t9 = x9_10 - x47_46;
        const P x11_12 = io.in(11, 12);
        const P x45_44 = io.in(45, 44);
        const P t10 = x11_12 + x45_44;
        const P t11 = x11_12 - x45_44;
        const P x13_14 = io.in(13, 14);
        const P x43_42 = io.in(43, 42);
        const P t12 = x13_14 + x43_42;
        const P t13 = x13_14 - x43_42;
        const P x15_16 = io.in(15, 16);
        const P x41_40 = io.in(41, 40);
        const P t14 = x15_16 + x41_40;
        const P t15 = x15_16 - x41_40;
        const P x17_18 = io.in(17, 18);
        const P x39_38 = io.in(39, 38);
        const P t16 = x17_18 + x39_38;
        const P t17 = x17_18 - x39_38;
        const P x19_20 = io.in(19, 20);
        const P x37_36 = io.in(37, 36);
        const P t18 = x19_20 + x37_36;
        const P t19 = x19_20 - x37_36;
        const P x21_22 = io.in(21, 22);
        const P x35_34 = io.in(35, 34);
        const P t20 = x21_22 + x35_34;
        const P t21 = x21_22 - x35_34;
        const P x23_24 = io.in(23, 24);
        const P x33_32 = io.in(33, 32);
        const P t22 = x23_24 + x33_32;
        const P t23 = x23_24 - x33_32;
        const P x25_26 = io.in(25, 26);
        const P x31_30 = io.in(31, 30);
        const P t24 = x25_26 + x31_30;
        const P t25 = x25_26 - x31_30;
        const V x27 = io.in(27);
        const V x29 = io.in(29);
        const V t26 = x27 + x29;
        const V t27 = x27 - x29;
        const V x0 = io.in(0);
        const V x28 = io.in(28);
        // spectrum block of 2
        const V t28 = x0 + x28;
        const V t29 = x0 - x28;
        const P t30 = joined(t28, t29);
        const P t31 = shuffled<1, 3>(t12, t13);
        // spectrum block of 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const V t34 = part<0>(t6);
        const V t35 = part<0>(t20);
        // mirrored skew block of 4, multiplier 7
        const V t36 = t34 - t35;
        const V t37 = part<0>(t7);
        const V t38 = part<0>(t21);
        const V t39 = t37 + t38;
        const V t40 = t34 + t35;
        const V t41 = c[6] * t36;
        const V t42 = c[6] * t39;
        const V t43 = t41 + t42;
        const V t44 = t38 - t37;
        const V t45 = t41 - t42;
        const P t46 = joined(t40, t43);
        // spectrum block of 2
        const P t47 = t32 + t46;
        const P t48 = t32 - t46;
        const P t49 = joined(t44, t45);
        // spectrum block of 2
        const P t50 = t33 - t49;
        const P t51 = t33 + t49;
        const P t52 = shuffled<1, 3>(t6, t7);
        const P t53 = shuffled<1, 3>(t18, t19);
        const P t54 = flipped<0, 1>(t53);
        // complex block of 2
        const P t55 = t52 + t54;
        const P t56 = t52 - t54;
        const P t57 = shuffled<0, 2>(t14, t15);
        const P t58 = shuffled<0, 2>(t12, t13);
        const P t59 = flipped<0, 1>(t58);
        // complex block of 2
        const P t60 = t57 + t59;
        const P t61 = t57 - t59;
        const P t62 = shuffled<1, 3>(t20, t21);
        const P t63 = shuffled<1, 3>(t4, t5);
        const P t64 = flipped<0, 1>(t63);
        // complex block of 2
        const P t65 = t62 + t64;
        const P t66 = t62 - t64;
        const V t67 = part<0>(t1);
        const P t68 = joined(t26, t67);
        const V t69 = part<0>(t0);
        const V t70 = flipped<1>(t27);
        const P t71 = joined(t69, t70);
        // complex block of 2
        const P t72 = t68 + t71;
        const P t73 = t68 - t71;
        // complex block of 2
        const P t74 = t55 + t65;
        const P t75 = t55 - t65;
        // complex block of 2
        const P t76 = t60 + t72;
        const P t77 = t60 - t72;
        // complex block of 2
        const P t78 = t74 + t76;
        const P t79 = t74 - t76;
        const P t80 = shuffled<1, 0>(t77);
        const P t81 = flipped<0, 1>(t80);
        // complex block of 2
        const P t82 = t75 + t81;
        const P t83 = t75 - t81;
        // complex block of 8, multiplier 7
        const P t84 = c[6] * t61;
        const P t85 = shuffled<1, 0>(t84);
        const P t86 = flipped<1, 0>(t85);
        const P t87 = t84 + t86;
        const P t88 = c[6] * t73;
        const P t89 = shuffled<1, 0>(t88);
        const P t90 = flipped<0, 1>(t88);
        const P t91 = t89 + t90;
        const P t92 = shuffled<1, 0>(t66);
        const P t93 = flipped<0, 1>(t92);
        // complex block of 2
        const P t94 = t56 + t93;
        const P t95 = t56 - t93;
        const P t96 = shuffled<1, 0>(t87);
        const P t97 = flipped<1, 0>(t91);
        // complex block of 2
        const P t98 = t96 + t97;
        const P t99 = flipped<0, 1>(t96);
        const P t100 = t91 + t99;
        const P t101 = flipped<0, 1>(t98);
        // complex block of 2
        const P t102 = t94 + t101;
        const P t103 = t94 - t101;
        const P t104 = shuffled<1, 0>(t100);
        const P t105 = flipped<0, 1>(t104);
        // complex block of 2
        const P t106 = t95 + t105;
        const P t107 = t95 - t105;
        const P t108 = shuffled<1, 3>(t14, t15);
        const P t109 = shuffled<1, 3>(t10, t11);
        const P t110 = flipped<0, 1>(t109);
        // complex block of 2
        const P t111 = t108 + t110;
        const P t112 = t108 - t110;
        const P t113 = shuffled<0, 2>(t22, t23);
        const P t114 = shuffled<0, 2>(t4, t5);
        const P t115 = flipped<0, 1>(t114);
        // complex block of 2
        const P t116 = t113 + t115;
        const P t117 = t113 - t115;
        const P t118 = shuffled<1, 3>(t24, t1);
        const P t119 = shuffled<1, 3>(t0, t25);
        const P t120 = flipped<0, 1>(t119);
        // complex block of 2
        const P t121 = t118 + t120;
        const P t122 = t118 - t120;
        const P t123 = shuffled<0, 2>(t18, t9);
        const P t124 = shuffled<0, 2>(t8, t19);
        const P t125 = flipped<0, 1>(t124);
        // complex block of 2
        const P t126 = t123 + t125;
        const P t127 = t123 - t125;
        // complex block of 2
        const P t128 = t111 + t121;
        const P t129 = t111 - t121;
        // complex block of 2
        const P t130 = t116 + t126;
        const P t131 = t116 - t126;
        // complex block of 2
        const P t132 = t128 + t130;
        const P t133 = t128 - t130;
        const P t134 = shuffled<1, 0>(t131);
        const P t135 = flipped<0, 1>(t134);
        // complex block of 2
        const P t136 = t129 + t135;
        const P t137 = t129 - t135;
        // complex block of 8, multiplier 7
        const P t138 = c[6] * t117;
        const P t139 = shuffled<1, 0>(t138);
        const P t140 = flipped<1, 0>(t139);
        const P t141 = t138 + t140;
        const P t142 = c[6] * t127;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = flipped<0, 1>(t142);
        const P t145 = t143 + t144;
        const P t146 = shuffled<1, 0>(t122);
        // complex block of 2
        const P t147 = t112 - t146;
        const P t148 = t112 + t146;
        const P t149 = shuffled<1, 0>(t141);
        const P t150 = flipped<1, 0>(t145);
        // complex block of 2
        const P t151 = t149 + t150;
        const P t152 = flipped<0, 1>(t149);
        const P t153 = t145 + t152;
        const P t154 = flipped<0, 1>(t151);
        // complex block of 2
        const P t155 = t147 + t154;
        const P t156 = t147 - t154;
        const P t157 = shuffled<1, 0>(t153);
        const P t158 = flipped<0, 1>(t157);
        // complex block of 2
        const P t159 = t148 + t158;
        const P t160 = t148 - t158;
        const P t161 = shuffled<1, 3>(t22, t23);
        const P t162 = shuffled<1, 3>(t2, t3);
        const P t163 = flipped<0, 1>(t162);
        // complex block of 2
        const P t164 = t161 + t163;
        const P t165 = t161 - t163;
        const P t166 = shuffled<0, 2>(t24, t3);
        const P t167 = shuffled<0, 2>(t2, t25);
        const P t168 = flipped<0, 1>(t167);
        // complex block of 2
        const P t169 = t166 + t168;
        const P t170 = t166 - t168;
        const P t171 = shuffled<1, 3>(t16, t9);
        const P t172 = shuffled<1, 3>(t8, t17);
        const P t173 = flipped<0, 1>(t172);
        // complex block of 2
        const P t174 = t171 + t173;
        const P t175 = t171 - t173;
        const P t176 = shuffled<0, 2>(t10, t17);
        const P t177 = shuffled<0, 2>(t16, t11);
        const P t178 = flipped<0, 1>(t177);
        // complex block of 2
        const P t179 = t176 + t178;
        const P t180 = t176 - t178;
        // complex block of 2
        const P t181 = t164 + t174;
        const P t182 = t164 - t174;
        // complex block of 2
        const P t183 = t169 + t179;
        const P t184 = t169 - t179;
        // complex block of 2
        const P t185 = t181 + t183;
        const P t186 = t181 - t183;
        const P t187 = shuffled<1, 0>(t184);
        const P t188 = flipped<0, 1>(t187);
        // complex block of 2
        const P t189 = t182 + t188;
        const P t190 = t182 - t188;
        // complex block of 8, multiplier 7
        const P t191 = c[6] * t170;
        const P t192 = shuffled<1, 0>(t191);
        const P t193 = flipped<0, 1>(t191);
        const P t194 = t192 + t193;
        const P t195 = c[6] * t180;
        const P t196 = shuffled<1, 0>(t195);
        const P t197 = flipped<0, 1>(t195);
        const P t198 = t196 + t197;
        const P t199 = shuffled<1, 0>(t175);
        // complex block of 2
        const P t200 = t165 - t199;
        const P t201 = t165 + t199;
        const P t202 = shuffled<1, 0>(t194);
        const P t203 = flipped<1, 0>(t198);
        // complex block of 2
        const P t204 = t202 + t203;
        const P t205 = flipped<0, 1>(t202);
        const P t206 = t198 + t205;
        const P t207 = flipped<0, 1>(t204);
        // complex block of 2
        const P t208 = t200 + t207;
        const P t209 = t200 - t207;
        const P t210 = shuffled<1, 0>(t206);
        const P t211 = flipped<0, 1>(t210);
        // complex block of 2
        const P t212 = t201 + t211;
        const P t213 = t201 - t211;
        const P t214 = shuffled<0, 2>(t78, t102);
        const P t215 = shuffled<0, 2>(t132, t155);
        // spectrum block of 7
        const P t216 = t214 + t215;
        const P t217 = shuffled<0, 2>(t185, t208);
        const P t218 = t216 + t217;
        const P t219 = t218 + t47;
        io.out(0, 49, t219);
        const P t220 = c[0] * t214;
        const P t221 = c[1] * t215;
        const P t222 = t220 - t221;
        const P t223 = c[2] * t217;
        const P t224 = t222 - t223;
        const P t225 = t224 + t47;
        const P t226 = shuffled<1, 3>(t78, t102);
        const P t227 = c[3] * t226;
        const P t228 = shuffled<1, 3>(t132, t155);
        const P t229 = c[4] * t228;
        const P t230 = t227 + t229;
        const P t231 = shuffled<1, 3>(t185, t208);
        const P t232 = c[5] * t231;
        const P t233 = t230 + t232;
        const P t234 = t225 - t233;
        io.out(48, 41, t234);
        const P t235 = t225 + t233;
        io.out(8, 1, t235);
        const P t236 = c[1] * t214;
        const P t237 = t47 - t236;
        const P t238 = c[2] * t215;
        const P t239 = t237 - t238;
        const P t240 = c[0] * t217;
        const P t241 = t239 + t240;
        const P t242 = c[4] * t226;
        const P t243 = c[5] * t228;
        const P t244 = t242 - t243;
        const P t245 = c[3] * t231;
        const P t246 = t244 - t245;
        const P t247 = t241 - t246;
        io.out(40, 33, t247);
        const P t248 = t241 + t246;
        io.out(16, 9, t248);
        const P t249 = c[2] * t214;
        const P t250 = t47 - t249;
        const P t251 = c[0] * t215;
        const P t252 = t250 + t251;
        const P t253 = c[1] * t217;
        const P t254 = t252 - t253;
        const P t255 = c[5] * t226;
        const P t256 = c[3] * t228;
        const P t257 = t255 - t256;
        const P t258 = c[4] * t231;
        const P t259 = t257 + t258;
        const P t260 = t254 - t259;
        io.out(32, 25, t260);
        const P t261 = t254 + t259;
        io.out(24, 17, t261);
        const P t262 = shuffled<0, 2>(t82, t106);
        const P t263 = shuffled<0, 2>(t136, t159);
        // spectrum block of 7
        const P t264 = t262 + t263;
        const P t265 = shuffled<0, 2>(t189, t212);
        const P t266 = t264 + t265;
        const P t267 = t266 + t50;
        io.out(42, 35, t267);
        const P t268 = c[0] * t262;
        const P t269 = c[1] * t263;
        const P t270 = t268 - t269;
        const P t271 = c[2] * t265;
        const P t272 = t270 - t271;
        const P t273 = t272 + t50;
        const P t274 = shuffled<1, 3>(t82, t106);
        const P t275 = c[3] * t274;
        const P t276 = shuffled<1, 3>(t136, t159);
        const P t277 = c[4] * t276;
        const P t278 = t275 + t277;
        const P t279 = shuffled<1, 3>(t189, t212);
        const P t280 = c[5] * t279;
        const P t281 = t278 + t280;
        const P t282 = t273 - t281;
        io.out(34, 27, t282);
        const P t283 = t273 + t281;
        io.out(50, 43, t283);
        const P t284 = c[1] * t262;
        const P t285 = t50 - t284;
        const P t286 = c[2] * t263;
        const P t287 = t285 - t286;
        const P t288 = c[0] * t265;
        const P t289 = t287 + t288;
        const P t290 = c[4] * t274;
        const P t291 = c[5] * t276;
        const P t292 = t290 - t291;
        const P t293 = c[3] * t279;
        const P t294 = t292 - t293;
        const P t295 = t289 - t294;
        io.out(26, 19, t295);
        const P t296 = t289 + t294;
        io.out(2, 51, t296);
        const P t297 = c[2] * t262;
        const P t298 = t50 - t297;
        const P t299 = c[0] * t263;
        const P t300 = t298 + t299;
        const P t301 = c[1] * t265;
        const P t302 = t300 - t301;
        const P t303 = c[5] * t274;
        const P t304 = c[3] * t276;
        const P t305 = t303 - t304;
        const P t306 = c[4] * t279;
        const P t307 = t305 + t306;
        const P t308 = t302 - t307;
        io.out(18, 11, t308);
        const P t309 = t302 + t307;
        io.out(10, 3, t309);
        const P t310 = shuffled<0, 2>(t79, t103);
        const P t311 = shuffled<0, 2>(t133, t156);
        // spectrum block of 7
        const P t312 = t310 + t311;
        const P t313 = shuffled<0, 2>(t186, t209);
        const P t314 = t312 + t313;
        const P t315 = t314 + t48;
        io.out(28, 21, t315);
        const P t316 = c[0] * t310;
        const P t317 = c[1] * t311;
        const P t318 = t316 - t317;
        const P t319 = c[2] * t313;
        const P t320 = t318 - t319;
        const P t321 = t320 + t48;
        const P t322 = shuffled<1, 3>(t79, t103);
        const P t323 = c[3] * t322;
        const P t324 = shuffled<1, 3>(t133, t156);
        const P t325 = c[4] * t324;
        const P t326 = t323 + t325;
        const P t327 = shuffled<1, 3>(t186, t209);
        const P t328 = c[5] * t327;
        const P t329 = t326 + t328;
        const P t330 = t321 - t329;
        io.out(20, 13, t330);
        const P t331 = t321 + t329;
        io.out(36, 29, t331);
        const P t332 = c[1] * t310;
        const P t333 = t48 - t332;
        const P t334 = c[2] * t311;
        const P t335 = t333 - t334;
        const P t336 = c[0] * t313;
        const P t337 = t335 + t336;
        const P t338 = c[4] * t322;
        const P t339 = c[5] * t324;
        const P t340 = t338 - t339;
        const P t341 = c[3] * t327;
        const P t342 = t340 - t341;
        const P t343 = t337 - t342;
        io.out(12, 5, t343);
        const P t344 = t337 + t342;
        io.out(44, 37, t344);
        const P t345 = c[2] * t310;
        const P t346 = t48 - t345;
        const P t347 = c[0] * t311;
        const P t348 = t346 + t347;
        const P t349 = c[1] * t313;
        const P t350 = t348 - t349;
        const P t351 = c[5] * t322;
        const P t352 = c[3] * t324;
        const P t353 = t351 - t352;
        const P t354 = c[4] * t327;
        const P t355 = t353 + t354;
        const P t356 = t350 - t355;
        io.out(4, 53, t356);
        const P t357 = t350 + t355;
        io.out(52, 45, t357);
        const P t358 = shuffled<0, 2>(t83, t107);
        const P t359 = shuffled<0, 2>(t137, t160);
        // spectrum block of 7
        const P t360 = t358 + t359;
        const P t361 = shuffled<0, 2>(t190, t213);
        const P t362 = t360 + t361;
        const P t363 = t362 + t51;
        io.out(14, 7, t363);
        const P t364 = c[0] * t358;
        const P t365 = c[1] * t359;
        const P t366 = t364 - t365;
        const P t367 = c[2] * t361;
        const P t368 = t366 - t367;
        const P t369 = t368 + t51;
        const P t370 = shuffled<1, 3>(t83, t107);
        const P t371 = c[3] * t370;
        const P t372 = shuffled<1, 3>(t137, t160);
        const P t373 = c[4] * t372;
        const P t374 = t371 + t373;
        const P t375 = shuffled<1, 3>(t190, t213);
        const P t376 = c[5] * t375;
        const P t377 = t374 + t376;
        const P t378 = t369 - t377;
        io.out(6, 55, t378);
        const P t379 = t369 + t377;
        io.out(22, 15, t379);
        const P t380 = c[1] * t358;
        const P t381 = t51 - t380;
        const P t382 = c[2] * t359;
        const P t383 = t381 - t382;
        const P t384 = c[0] * t361;
        const P t385 = t383 + t384;
        const P t386 = c[4] * t370;
        const P t387 = c[5] * t372;
        const P t388 = t386 - t387;
        const P t389 = c[3] * t375;
        const P t390 = t388 - t389;
        const P t391 = t385 - t390;
        io.out(54, 47, t391);
        const P t392 = t385 + t390;
        io.out(30, 23, t392);
        const P t393 = c[2] * t358;
        const P t394 = t51 - t393;
        const P t395 = c[0] * t359;
        const P t396 = t394 + t395;
        const P t397 = c[1] * t361;
        const P t398 = t396 - t397;
        const P t399 = c[5] * t370;
        const P t400 = c[3] * t372;
        const P t401 = t399 - t400;
        const P t402 = c[4] * t375;
        const P t403 = t401 + t402;
        const P t404 = t398 - t403;
        io.out(46, 39, t404);
        const P t405 = t398 + t403;
        io.out(38, 31, t405);
    }
};

}  // namespace zulg
