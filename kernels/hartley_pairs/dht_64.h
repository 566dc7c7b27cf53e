// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 64.
// Hartley transform of 64 points, form I; two lanes to a register.
// 137 sums, 99 differences, 68 products of registers, which do the 660 steps of the graph, those with
// `scale` included; 115 shuffles, 44 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<64> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 15/16
        0.3826834323650898,  // c[1]: -sin 2 pi 15/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.9807852804032304,  // c[3]: cos 2 pi 62/64
        0.19509032201612828,  // c[4]: -sin 2 pi 62/64
        0.8314696123025452,  // c[5]: cos 2 pi 58/64
        0.5555702330196022,  // c[6]: -sin 2 pi 58/64
        0.9951847266721969,  // c[7]: cos 2 pi 63/64
        0.0980171403295606,  // c[8]: -sin 2 pi 63/64
        0.9569403357322088,  // c[9]: cos 2 pi 61/64
        0.2902846772544624,  // c[10]: -sin 2 pi 61/64
        0.881921264348355,  // c[11]: cos 2 pi 59/64
        0.47139673682599764,  // c[12]: -sin 2 pi 59/64
        0.773010453362737,  // c[13]: cos 2 pi 57/64
        0.6343932841636455,  // c[14]: -sin 2 pi 57/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x63_62 = io.in(63, 62);
        // input stage
        const P t0 = x1_2 + x63_62;
        const P t1 = x1_2 - x63_62;
        const P x3_4 = io.in(3, 4);
        const P x61_60 = io.in(61, 60);
        const P t2 = x3_4 + x61_60;
        const P t3 = x3_4 - x61_60;
        const P x5_6 = io.in(5, 6);
        const P x59_58 = io.in(59, 58);
        const P t4 = x5_6 + x59_58;
        const P t5 = x5_6 - x59_58;
        const P x7_8 = io.in(7, 8);
        const P x57_56 = io.in(57, 56);
        const P t6 = x7_8 + x57_56;
        const P t7 = x7_8 - x57_56;
        const P x9_10 = io.in(9, 10);
        const P x55_54 = io.in(55, 54);
        const P t8 = x9_10 + x55_54;
        const P t9 = x9_10 - x55_54;
        const P x11_12 = io.in(11, 12);
        const P x53_52 = io.in(53, 52);
        const P t10 = x11_12 + x53_52;
        const P t11 = x11_12 - x53_52;
        const P x13_14 = io.in(13, 14);
        const P x51_50 = io.in(51, 50);
        const P t12 = x13_14 + x51_50;
        const P t13 = x13_14 - x51_50;
        const P x15_16 = io.in(15, 16);
        const P x49_48 = io.in(49, 48);
        const P t14 = x15_16 + x49_48;
        const P t15 = x15_16 - x49_48;
        const P x17_18 = io.in(17, 18);
        const P x47_46 = io.in(47, 46);
        const P t16 = x17_18 + x47_46;
        const P t17 = x17_18 - x47_46;
        const P x19_20 = io.in(19, 20);
        const P x45_44 = io.in(45, 44);
        const P t18 = x19_20 + x45_44;
        const P t19 = x19_20 - x45_44;
        const P x21_22 = io.in(21, 22);
        const P x43_42 = io.in(43, 42);
        const P t20 = x21_22 + x43_42;
        const P t21 = x21_22 - x43_42;
        const P x23_24 = io.in(23, 24);
        const P x41_40 = io.in(41, 40);
        const P t22 = x23_24 + x41_40;
        const P t23 = x23_24 - x41_40;
        const P x25_26 = io.in(25, 26);
        const P x39_38 = io.in(39, 38);
        const P t24 = x25_26 + x39_38;
        const P t25 = x25_26 - x39_38;
        const P x27_28 = io.in(27, 28);
        const P x37_36 = io.in(37, 36);
        const P t26 = x27_28 + x37_36;
        const P t27 = x27_28 - x37_36;
        const P x29_30 = io.in(29, 30);
        const P x35_34 = io.in(35, 34);
        const P t28 = x29_30 + x35_34;
        const P t29 = x29_30 - x35_34;
        const V x31 = io.in(31);
        const V x33 = io.in(33);
        const V t30 = x31 + x33;
        const V t31 = x31 - x33;
        const V x0 = io.in(0);
        const V x32 = io.in(32);
        // spectrum block of 2
        const V t32 = x0 + x32;
        const V t33 = x0 - x32;
        const P t34 = joined(t32, t33);
        const P t35 = shuffled<1, 3>(t14, t15);
        const P t36 = flipped<0, 1>(t35);
        // spectrum block of 2
        const P t37 = t34 + t36;
        const P t38 = t34 - t36;
        const P t39 = shuffled<1, 3>(t2, t3);
        const P t40 = shuffled<1, 3>(t26, t27);
        const P t41 = flipped<0, 1>(t40);
        // complex block of 2
        const P t42 = t39 + t41;
        const P t43 = t39 - t41;
        const P t44 = shuffled<1, 3>(t18, t19);
        const P t45 = shuffled<1, 3>(t10, t11);
        const P t46 = flipped<0, 1>(t45);
        // complex block of 2
        const P t47 = t44 + t46;
        const P t48 = t44 - t46;
        // complex block of 2
        const P t49 = t42 + t47;
        const P t50 = t42 - t47;
        const P t51 = shuffled<1, 0>(t48);
        const P t52 = flipped<1, 0>(t51);
        // complex block of 2
        const P t53 = t43 + t52;
        const P t54 = t43 - t52;
        // spectrum block of 16
        const P t55 = c[0] * t53;
        const P t56 = shuffled<1, 0>(t53);
        const P t57 = P(-c[1], c[1]) * t56;
        const P t58 = t55 + t57;
        const P t59 = shuffled<1, 0>(t50);
        const P t60 = flipped<0, 1>(t59);
        const P t61 = t50 + t60;
        const P t62 = c[1] * t54;
        const P t63 = shuffled<1, 0>(t54);
        const P t64 = P(-c[0], c[0]) * t63;
        const P t65 = t62 + t64;
        const V t66 = part<1>(t6);
        const V t67 = part<1>(t22);
        // mirrored skew block of 4
        const V t68 = t66 - t67;
        const V t69 = part<1>(t7);
        const V t70 = part<1>(t23);
        const V t71 = t69 + t70;
        const V t72 = t66 + t67;
        const V t73 = c[2] * t68;
        const V t74 = c[2] * t71;
        const V t75 = t73 - t74;
        const V t76 = t69 - t70;
        const V t77 = t73 + t74;
        const P t78 = joined(t72, t75);
        // spectrum block of 2
        const P t79 = t37 + t78;
        const P t80 = t37 - t78;
        const P t81 = shuffled<0, 2>(t49, t58);
        // spectrum block of 2
        const P t82 = t79 + t81;
        const P t83 = t79 - t81;
        const P t84 = shuffled<1, 3>(t49, t58);
        // spectrum block of 2
        const P t85 = t80 - t84;
        const P t86 = t80 + t84;
        const P t87 = joined(t76, t77);
        // spectrum block of 2
        const P t88 = t38 - t87;
        const P t89 = t38 + t87;
        // spectrum block of 16
        const P t90 = P(c[2], -c[2]) * t61;
        const P t91 = shuffled<1, 2>(t90, t65);
        // spectrum block of 2
        const P t92 = t88 + t91;
        const P t93 = t88 - t91;
        const P t94 = shuffled<0, 3>(t90, t65);
        // spectrum block of 2
        const P t95 = t89 - t94;
        const P t96 = t89 + t94;
        const P t97 = shuffled<0, 2>(t0, t1);
        const V t98 = flipped<1>(t31);
        const P t99 = joined(t30, t98);
        // complex block of 2
        const P t100 = t97 + t99;
        const P t101 = t97 - t99;
        const P t102 = shuffled<0, 2>(t4, t5);
        const P t103 = shuffled<0, 2>(t26, t27);
        const P t104 = flipped<0, 1>(t103);
        // complex block of 2
        const P t105 = t102 + t104;
        const P t106 = t102 - t104;
        const P t107 = shuffled<0, 2>(t8, t9);
        const P t108 = shuffled<0, 2>(t22, t23);
        const P t109 = flipped<0, 1>(t108);
        // complex block of 2
        const P t110 = t107 + t109;
        const P t111 = t107 - t109;
        const P t112 = shuffled<0, 2>(t12, t13);
        const P t113 = shuffled<0, 2>(t18, t19);
        const P t114 = flipped<0, 1>(t113);
        // complex block of 2
        const P t115 = t112 + t114;
        const P t116 = t112 - t114;
        const P t117 = shuffled<0, 2>(t16, t17);
        const P t118 = shuffled<0, 2>(t14, t15);
        const P t119 = flipped<0, 1>(t118);
        // complex block of 2
        const P t120 = t117 + t119;
        const P t121 = t117 - t119;
        const P t122 = shuffled<0, 2>(t20, t21);
        const P t123 = shuffled<0, 2>(t10, t11);
        const P t124 = flipped<0, 1>(t123);
        // complex block of 2
        const P t125 = t122 + t124;
        const P t126 = t122 - t124;
        const P t127 = shuffled<0, 2>(t24, t25);
        const P t128 = shuffled<0, 2>(t6, t7);
        const P t129 = flipped<0, 1>(t128);
        // complex block of 2
        const P t130 = t127 + t129;
        const P t131 = t127 - t129;
        const P t132 = shuffled<0, 2>(t28, t29);
        const P t133 = shuffled<0, 2>(t2, t3);
        const P t134 = flipped<0, 1>(t133);
        // complex block of 2
        const P t135 = t132 + t134;
        const P t136 = t132 - t134;
        // complex block of 2
        const P t137 = t100 + t120;
        const P t138 = t100 - t120;
        // complex block of 2
        const P t139 = t105 + t125;
        const P t140 = t105 - t125;
        // complex block of 2
        const P t141 = t110 + t130;
        const P t142 = t110 - t130;
        // complex block of 2
        const P t143 = t115 + t135;
        const P t144 = t115 - t135;
        // complex block of 2
        const P t145 = t137 + t141;
        const P t146 = t137 - t141;
        // complex block of 2
        const P t147 = t139 + t143;
        const P t148 = t139 - t143;
        // complex block of 2
        const P t149 = t145 + t147;
        const P t150 = t145 - t147;
        const P t151 = shuffled<1, 0>(t148);
        const P t152 = flipped<1, 0>(t151);
        // complex block of 2
        const P t153 = t146 + t152;
        const P t154 = t146 - t152;
        // complex block of 8
        const P t155 = c[2] * t140;
        const P t156 = shuffled<1, 0>(t155);
        const P t157 = flipped<1, 0>(t156);
        const P t158 = t155 + t157;
        const P t159 = c[2] * t144;
        const P t160 = shuffled<1, 0>(t159);
        const P t161 = flipped<1, 0>(t160);
        const P t162 = t159 + t161;
        const P t163 = shuffled<1, 0>(t142);
        const P t164 = flipped<1, 0>(t163);
        // complex block of 2
        const P t165 = t138 + t164;
        const P t166 = t138 - t164;
        const P t167 = shuffled<1, 0>(t162);
        const P t168 = flipped<1, 0>(t167);
        // complex block of 2
        const P t169 = t158 + t168;
        const P t170 = t158 - t168;
        // complex block of 2
        const P t171 = t165 + t169;
        const P t172 = t165 - t169;
        const P t173 = shuffled<1, 0>(t170);
        const P t174 = flipped<1, 0>(t173);
        // complex block of 2
        const P t175 = t166 + t174;
        const P t176 = t166 - t174;
        // complex block of 16
        const P t177 = c[0] * t106;
        const P t178 = shuffled<1, 0>(t106);
        const P t179 = P(-c[1], c[1]) * t178;
        const P t180 = t177 + t179;
        const P t181 = c[2] * t111;
        const P t182 = shuffled<1, 0>(t181);
        const P t183 = flipped<1, 0>(t182);
        const P t184 = t181 + t183;
        const P t185 = c[1] * t116;
        const P t186 = shuffled<1, 0>(t116);
        const P t187 = P(-c[0], c[0]) * t186;
        const P t188 = t185 + t187;
        const P t189 = shuffled<1, 0>(t126);
        const P t190 = c[0] * t189;
        const P t191 = P(c[1], -c[1]) * t126;
        const P t192 = t190 + t191;
        const P t193 = c[2] * t131;
        const P t194 = shuffled<1, 0>(t193);
        const P t195 = flipped<1, 0>(t194);
        const P t196 = t193 + t195;
        const P t197 = shuffled<1, 0>(t136);
        const P t198 = c[1] * t197;
        const P t199 = P(c[0], -c[0]) * t136;
        const P t200 = t198 + t199;
        const P t201 = shuffled<1, 0>(t121);
        const P t202 = flipped<1, 0>(t201);
        // complex block of 2
        const P t203 = t101 + t202;
        const P t204 = t101 - t202;
        const P t205 = flipped<1, 0>(t192);
        // complex block of 2
        const P t206 = t180 + t205;
        const P t207 = t180 - t205;
        const P t208 = shuffled<1, 0>(t196);
        const P t209 = flipped<1, 0>(t208);
        // complex block of 2
        const P t210 = t184 + t209;
        const P t211 = t184 - t209;
        const P t212 = flipped<1, 0>(t200);
        // complex block of 2
        const P t213 = t188 + t212;
        const P t214 = t188 - t212;
        // complex block of 2
        const P t215 = t203 + t210;
        const P t216 = t203 - t210;
        // complex block of 2
        const P t217 = t206 + t213;
        const P t218 = t206 - t213;
        // complex block of 2
        const P t219 = t215 + t217;
        const P t220 = t215 - t217;
        const P t221 = shuffled<1, 0>(t218);
        const P t222 = flipped<1, 0>(t221);
        // complex block of 2
        const P t223 = t216 + t222;
        const P t224 = t216 - t222;
        // complex block of 8
        const P t225 = c[2] * t207;
        const P t226 = shuffled<1, 0>(t225);
        const P t227 = flipped<1, 0>(t226);
        const P t228 = t225 + t227;
        const P t229 = c[2] * t214;
        const P t230 = shuffled<1, 0>(t229);
        const P t231 = flipped<1, 0>(t230);
        const P t232 = t229 + t231;
        const P t233 = shuffled<1, 0>(t211);
        const P t234 = flipped<1, 0>(t233);
        // complex block of 2
        const P t235 = t204 + t234;
        const P t236 = t204 - t234;
        const P t237 = shuffled<1, 0>(t232);
        const P t238 = flipped<1, 0>(t237);
        // complex block of 2
        const P t239 = t228 + t238;
        const P t240 = t228 - t238;
        // complex block of 2
        const P t241 = t235 + t239;
        const P t242 = t235 - t239;
        const P t243 = shuffled<1, 0>(t240);
        const P t244 = flipped<1, 0>(t243);
        // complex block of 2
        const P t245 = t236 + t244;
        const P t246 = t236 - t244;
        // spectrum block of 64
        const P t247 = c[7] * t219;
        const P t248 = shuffled<1, 0>(t219);
        const P t249 = P(-c[8], c[8]) * t248;
        const P t250 = t247 + t249;
        const P t251 = c[3] * t171;
        const P t252 = shuffled<1, 0>(t171);
        const P t253 = P(-c[4], c[4]) * t252;
        const P t254 = t251 + t253;
        const P t255 = c[9] * t241;
        const P t256 = shuffled<1, 0>(t241);
        const P t257 = P(-c[10], c[10]) * t256;
        const P t258 = t255 + t257;
        const P t259 = c[0] * t153;
        const P t260 = shuffled<1, 0>(t153);
        const P t261 = P(-c[1], c[1]) * t260;
        const P t262 = t259 + t261;
        const P t263 = c[11] * t223;
        const P t264 = shuffled<1, 0>(t223);
        const P t265 = P(-c[12], c[12]) * t264;
        const P t266 = t263 + t265;
        const P t267 = c[5] * t175;
        const P t268 = shuffled<1, 0>(t175);
        const P t269 = P(-c[6], c[6]) * t268;
        const P t270 = t267 + t269;
        const P t271 = c[13] * t245;
        const P t272 = shuffled<1, 0>(t245);
        const P t273 = P(-c[14], c[14]) * t272;
        const P t274 = t271 + t273;
        const P t275 = shuffled<1, 0>(t150);
        const P t276 = flipped<0, 1>(t275);
        const P t277 = t150 + t276;
        const P t278 = c[14] * t220;
        const P t279 = shuffled<1, 0>(t220);
        const P t280 = P(-c[13], c[13]) * t279;
        const P t281 = t278 + t280;
        const P t282 = c[6] * t172;
        const P t283 = shuffled<1, 0>(t172);
        const P t284 = P(-c[5], c[5]) * t283;
        const P t285 = t282 + t284;
        const P t286 = c[12] * t242;
        const P t287 = shuffled<1, 0>(t242);
        const P t288 = P(-c[11], c[11]) * t287;
        const P t289 = t286 + t288;
        const P t290 = c[1] * t154;
        const P t291 = shuffled<1, 0>(t154);
        const P t292 = P(-c[0], c[0]) * t291;
        const P t293 = t290 + t292;
        const P t294 = c[10] * t224;
        const P t295 = shuffled<1, 0>(t224);
        const P t296 = P(-c[9], c[9]) * t295;
        const P t297 = t294 + t296;
        const P t298 = c[4] * t176;
        const P t299 = shuffled<1, 0>(t176);
        const P t300 = P(-c[3], c[3]) * t299;
        const P t301 = t298 + t300;
        const P t302 = c[8] * t246;
        const P t303 = shuffled<1, 0>(t246);
        const P t304 = P(-c[7], c[7]) * t303;
        const P t305 = t302 + t304;
        const P t306 = shuffled<1, 3>(t0, t1);
        const P t307 = shuffled<1, 3>(t28, t29);
        const P t308 = flipped<0, 1>(t307);
        // complex block of 2
        const P t309 = t306 + t308;
        const P t310 = t306 - t308;
        // mirrored skew block of 16
        const P t311 = c[3] * t310;
        const P t312 = shuffled<1, 0>(t310);
        const P t313 = P(-c[4], c[4]) * t312;
        const P t314 = t311 + t313;
        const P t315 = shuffled<1, 3>(t4, t5);
        const P t316 = shuffled<1, 3>(t24, t25);
        const P t317 = flipped<0, 1>(t316);
        // complex block of 2
        const P t318 = t315 + t317;
        const P t319 = t315 - t317;
        // mirrored skew block of 16
        const P t320 = c[5] * t319;
        const P t321 = shuffled<1, 0>(t319);
        const P t322 = P(-c[6], c[6]) * t321;
        const P t323 = t320 + t322;
        const P t324 = shuffled<1, 3>(t8, t9);
        const P t325 = shuffled<1, 3>(t20, t21);
        const P t326 = flipped<0, 1>(t325);
        // complex block of 2
        const P t327 = t324 + t326;
        const P t328 = t324 - t326;
        // mirrored skew block of 16
        const P t329 = c[6] * t328;
        const P t330 = shuffled<1, 0>(t328);
        const P t331 = P(-c[5], c[5]) * t330;
        const P t332 = t329 + t331;
        const P t333 = shuffled<1, 3>(t12, t13);
        const P t334 = shuffled<1, 3>(t16, t17);
        const P t335 = flipped<0, 1>(t334);
        // complex block of 2
        const P t336 = t333 + t335;
        const P t337 = t333 - t335;
        // mirrored skew block of 16
        const P t338 = c[4] * t337;
        const P t339 = shuffled<1, 0>(t337);
        const P t340 = P(-c[3], c[3]) * t339;
        const P t341 = t338 + t340;
        const P t342 = flipped<0, 1>(t336);
        // complex block of 2
        const P t343 = t309 + t342;
        const P t344 = t309 - t342;
        const P t345 = flipped<0, 1>(t318);
        // complex block of 2
        const P t346 = t327 + t345;
        const P t347 = t327 - t345;
        // complex block of 2
        const P t348 = t343 + t346;
        const P t349 = t343 - t346;
        const P t350 = shuffled<1, 0>(t347);
        const P t351 = flipped<1, 0>(t350);
        // complex block of 2
        const P t352 = t344 + t351;
        const P t353 = t344 - t351;
        // mirrored skew block of 8
        const P t354 = c[0] * t352;
        const P t355 = shuffled<1, 0>(t352);
        const P t356 = P(-c[1], c[1]) * t355;
        const P t357 = t354 + t356;
        const P t358 = c[2] * t349;
        const P t359 = shuffled<1, 0>(t358);
        const P t360 = flipped<0, 1>(t359);
        const P t361 = t358 + t360;
        const P t362 = c[1] * t353;
        const P t363 = shuffled<1, 0>(t353);
        const P t364 = P(-c[0], c[0]) * t363;
        const P t365 = t362 + t364;
        const P t366 = flipped<0, 1>(t341);
        // complex block of 2
        const P t367 = t314 + t366;
        const P t368 = t314 - t366;
        const P t369 = flipped<0, 1>(t323);
        // complex block of 2
        const P t370 = t332 + t369;
        const P t371 = t332 - t369;
        // complex block of 2
        const P t372 = t367 + t370;
        const P t373 = t367 - t370;
        const P t374 = shuffled<1, 0>(t371);
        const P t375 = flipped<1, 0>(t374);
        // complex block of 2
        const P t376 = t368 + t375;
        const P t377 = t368 - t375;
        // mirrored skew block of 8
        const P t378 = c[0] * t376;
        const P t379 = shuffled<1, 0>(t376);
        const P t380 = P(-c[1], c[1]) * t379;
        const P t381 = t378 + t380;
        const P t382 = c[2] * t373;
        const P t383 = shuffled<1, 0>(t382);
        const P t384 = flipped<0, 1>(t383);
        const P t385 = t382 + t384;
        const P t386 = c[1] * t377;
        const P t387 = shuffled<1, 0>(t377);
        const P t388 = P(-c[0], c[0]) * t387;
        const P t389 = t386 + t388;
        const P t390 = shuffled<0, 2>(t348, t372);
        // spectrum block of 2
        const P t391 = t82 + t390;
        const P t392 = t82 - t390;
        const P t393 = shuffled<0, 2>(t149, t250);
        // spectrum block of 2
        const P t394 = t391 + t393;
        io.out(0, 63, t394);
        const P t395 = t391 - t393;
        io.out(32, 31, t395);
        const P t396 = shuffled<1, 3>(t149, t250);
        // spectrum block of 2
        const P t397 = t392 - t396;
        io.out(48, 47, t397);
        const P t398 = t392 + t396;
        io.out(16, 15, t398);
        const P t399 = shuffled<0, 2>(t357, t381);
        // spectrum block of 2
        const P t400 = t92 + t399;
        const P t401 = t92 - t399;
        const P t402 = shuffled<0, 2>(t254, t258);
        // spectrum block of 2
        const P t403 = t400 + t402;
        io.out(62, 61, t403);
        const P t404 = t400 - t402;
        io.out(30, 29, t404);
        const P t405 = shuffled<1, 3>(t254, t258);
        // spectrum block of 2
        const P t406 = t401 - t405;
        io.out(46, 45, t406);
        const P t407 = t401 + t405;
        io.out(14, 13, t407);
        const P t408 = shuffled<1, 3>(t361, t385);
        // spectrum block of 2
        const P t409 = t85 - t408;
        const P t410 = t85 + t408;
        const P t411 = shuffled<0, 2>(t262, t266);
        // spectrum block of 2
        const P t412 = t409 + t411;
        io.out(60, 59, t412);
        const P t413 = t409 - t411;
        io.out(28, 27, t413);
        const P t414 = shuffled<1, 3>(t262, t266);
        // spectrum block of 2
        const P t415 = t410 - t414;
        io.out(44, 43, t415);
        const P t416 = t410 + t414;
        io.out(12, 11, t416);
        const P t417 = shuffled<0, 2>(t365, t389);
        // spectrum block of 2
        const P t418 = t95 + t417;
        const P t419 = t95 - t417;
        const P t420 = shuffled<0, 2>(t270, t274);
        // spectrum block of 2
        const P t421 = t418 + t420;
        io.out(58, 57, t421);
        const P t422 = t418 - t420;
        io.out(26, 25, t422);
        const P t423 = shuffled<1, 3>(t270, t274);
        // spectrum block of 2
        const P t424 = t419 - t423;
        io.out(42, 41, t424);
        const P t425 = t419 + t423;
        io.out(10, 9, t425);
        const P t426 = shuffled<1, 3>(t348, t372);
        // spectrum block of 2
        const P t427 = t83 - t426;
        const P t428 = t83 + t426;
        // spectrum block of 64
        const P t429 = P(c[2], -c[2]) * t277;
        const P t430 = shuffled<1, 2>(t429, t281);
        // spectrum block of 2
        const P t431 = t427 + t430;
        io.out(56, 55, t431);
        const P t432 = t427 - t430;
        io.out(24, 23, t432);
        const P t433 = shuffled<0, 3>(t429, t281);
        // spectrum block of 2
        const P t434 = t428 - t433;
        io.out(40, 39, t434);
        const P t435 = t428 + t433;
        io.out(8, 7, t435);
        const P t436 = shuffled<1, 3>(t357, t381);
        // spectrum block of 2
        const P t437 = t93 - t436;
        const P t438 = t93 + t436;
        const P t439 = shuffled<0, 2>(t285, t289);
        // spectrum block of 2
        const P t440 = t437 + t439;
        io.out(54, 53, t440);
        const P t441 = t437 - t439;
        io.out(22, 21, t441);
        const P t442 = shuffled<1, 3>(t285, t289);
        // spectrum block of 2
        const P t443 = t438 - t442;
        io.out(38, 37, t443);
        const P t444 = t438 + t442;
        io.out(6, 5, t444);
        const P t445 = shuffled<0, 2>(t361, t385);
        // spectrum block of 2
        const P t446 = t86 - t445;
        const P t447 = t86 + t445;
        const P t448 = shuffled<0, 2>(t293, t297);
        // spectrum block of 2
        const P t449 = t446 + t448;
        io.out(52, 51, t449);
        const P t450 = t446 - t448;
        io.out(20, 19, t450);
        const P t451 = shuffled<1, 3>(t293, t297);
        // spectrum block of 2
        const P t452 = t447 - t451;
        io.out(36, 35, t452);
        const P t453 = t447 + t451;
        io.out(4, 3, t453);
        const P t454 = shuffled<1, 3>(t365, t389);
        // spectrum block of 2
        const P t455 = t96 - t454;
        const P t456 = t96 + t454;
        const P t457 = shuffled<0, 2>(t301, t305);
        // spectrum block of 2
        const P t458 = t455 + t457;
        io.out(50, 49, t458);
        const P t459 = t455 - t457;
        io.out(18, 17, t459);
        const P t460 = shuffled<1, 3>(t301, t305);
        // spectrum block of 2
        const P t461 = t456 - t460;
        io.out(34, 33, t461);
        const P t462 = t456 + t460;
        io.out(2, 1, t462);
    }
};

}  // namespace zulg
