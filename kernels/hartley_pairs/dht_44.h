// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 44.
// Hartley transform of 44 points, form I; two lanes to a register.
// 109 sums, 93 differences, 100 products of registers, which do the 644 steps of the graph, those with
// `scale` included; 47 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<44> {
    static constexpr int steps = 644;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5450828424811972,  // c[4]: P[1] of 11
        0.3780009190896476,  // c[5]: -Q[1] of 11
        0.6355539395974166,  // c[6]: -Q[2] of 11
        0.18992416871531467,  // c[7]: -P[2] of 11
        0.6617220446385197,  // c[8]: P[3] of 11
        0.046086176229070706,  // c[9]: -Q[3] of 11
        0.5539145271232301,  // c[10]: Q[4] of 11
        0.3649365652299704,  // c[11]: -P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x43_42 = io.in(43, 42);
        // input stage
        const P t0 = x1_2 + x43_42;
        const P t1 = x1_2 - x43_42;
        const P x3_4 = io.in(3, 4);
        const P x41_40 = io.in(41, 40);
        const P t2 = x3_4 + x41_40;
        const P t3 = x3_4 - x41_40;
        const P x5_6 = io.in(5, 6);
        const P x39_38 = io.in(39, 38);
        const P t4 = x5_6 + x39_38;
        const P t5 = x5_6 - x39_38;
        const P x7_8 = io.in(7, 8);
        const P x37_36 = io.in(37, 36);
        const P t6 = x7_8 + x37_36;
        const P t7 = x7_8 - x37_36;
        const P x9_10 = io.in(9, 10);
        const P x35_34 = io.in(35, 34);
        const P t8 = x9_10 + x35_34;
        const P t9 = x9_10 - x35_34;
        const P x11_12 = io.in(11, 12);
        const P x33_32 = io.in(33, 32);
        const P t10 = x11_12 + x33_32;
        const P t11 = x11_12 - x33_32;
        const P x13_14 = io.in(13, 14);
        const P x31_30 = io.in(31, 30);
        const P t12 = x13_14 + x31_30;
        const P t13 = x13_14 - x31_30;
        const P x15_16 = io.in(15, 16);
        const P x29_28 = io.in(29, 28);
        const P t14 = x15_16 + x29_28;
        const P t15 = x15_16 - x29_28;
        const P x17_18 = io.in(17, 18);
        const P x27_26 = io.in(27, 26);
        const P t16 = x17_18 + x27_26;
        const P t17 = x17_18 - x27_26;
        const P x19_20 = io.in(19, 20);
        const P x25_24 = io.in(25, 24);
        const P t18 = x19_20 + x25_24;
        const P t19 = x19_20 - x25_24;
        const V x21 = io.in(21);
        const V x23 = io.in(23);
        const V t20 = x21 + x23;
        const V t21 = x21 - x23;
        const V x0 = io.in(0);
        const V x22 = io.in(22);
        // spectrum block of 2
        const V t22 = x0 + x22;
        const V t23 = x0 - x22;
        const P t24 = joined(t22, t23);
        const P t25 = shuffled<0, 2>(t10, t11);
        // spectrum block of 2
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        const P t28 = shuffled<1, 3>(t2, t3);
        const P t29 = shuffled<1, 3>(t16, t17);
        const P t30 = flipped<0, 1>(t29);
        // complex block of 2
        const P t31 = t28 + t30;
        const P t32 = t28 - t30;
        const P t33 = shuffled<0, 2>(t14, t15);
        const P t34 = shuffled<0, 2>(t6, t7);
        const P t35 = flipped<0, 1>(t34);
        // complex block of 2
        const P t36 = t33 + t35;
        const P t37 = t33 - t35;
        // complex block of 2
        const P t38 = t31 + t36;
        const P t39 = t31 - t36;
        const P t40 = shuffled<1, 0>(t37);
        const P t41 = flipped<0, 1>(t40);
        // complex block of 2
        const P t42 = t32 + t41;
        const P t43 = t32 - t41;
        const P t44 = shuffled<1, 3>(t6, t7);
        const P t45 = shuffled<1, 3>(t12, t13);
        const P t46 = flipped<0, 1>(t45);
        // complex block of 2
        const P t47 = t44 + t46;
        const P t48 = t44 - t46;
        const P t49 = shuffled<0, 2>(t18, t19);
        const P t50 = shuffled<0, 2>(t2, t3);
        const P t51 = flipped<0, 1>(t50);
        // complex block of 2
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        // complex block of 2
        const P t54 = t47 + t52;
        const P t55 = t47 - t52;
        const P t56 = shuffled<1, 0>(t53);
        const P t57 = flipped<0, 1>(t56);
        // complex block of 2
        const P t58 = t48 + t57;
        const P t59 = t48 - t57;
        const P t60 = shuffled<1, 3>(t10, t11);
        const P t61 = shuffled<1, 3>(t8, t9);
        const P t62 = flipped<0, 1>(t61);
        // complex block of 2
        const P t63 = t60 + t62;
        const P t64 = t60 - t62;
        const V t65 = part<0>(t1);
        const P t66 = joined(t20, t65);
        const V t67 = part<0>(t0);
        const V t68 = flipped<1>(t21);
        const P t69 = joined(t67, t68);
        // complex block of 2
        const P t70 = t66 + t69;
        const P t71 = t66 - t69;
        // complex block of 2
        const P t72 = t63 + t70;
        const P t73 = t63 - t70;
        const P t74 = shuffled<1, 0>(t71);
        // complex block of 2
        const P t75 = t64 - t74;
        const P t76 = t64 + t74;
        const P t77 = shuffled<1, 3>(t14, t15);
        const P t78 = shuffled<1, 3>(t4, t5);
        const P t79 = flipped<0, 1>(t78);
        // complex block of 2
        const P t80 = t77 + t79;
        const P t81 = t77 - t79;
        const P t82 = shuffled<0, 2>(t16, t5);
        const P t83 = shuffled<0, 2>(t4, t17);
        const P t84 = flipped<0, 1>(t83);
        // complex block of 2
        const P t85 = t82 + t84;
        const P t86 = t82 - t84;
        // complex block of 2
        const P t87 = t80 + t85;
        const P t88 = t80 - t85;
        const P t89 = shuffled<1, 0>(t86);
        // complex block of 2
        const P t90 = t81 - t89;
        const P t91 = t81 + t89;
        const P t92 = shuffled<1, 3>(t18, t19);
        const P t93 = shuffled<1, 3>(t0, t1);
        const P t94 = flipped<0, 1>(t93);
        // complex block of 2
        const P t95 = t92 + t94;
        const P t96 = t92 - t94;
        const P t97 = shuffled<0, 2>(t12, t9);
        const P t98 = shuffled<0, 2>(t8, t13);
        const P t99 = flipped<0, 1>(t98);
        // complex block of 2
        const P t100 = t97 + t99;
        const P t101 = t97 - t99;
        // complex block of 2
        const P t102 = t95 + t100;
        const P t103 = t95 - t100;
        const P t104 = shuffled<1, 0>(t101);
        // complex block of 2
        const P t105 = t96 - t104;
        const P t106 = t96 + t104;
        const P t107 = shuffled<0, 2>(t54, t58);
        const P t108 = shuffled<0, 2>(t102, t105);
        // real block of 5
        const P t109 = t107 + t108;
        const P t110 = t107 - t108;
        const P t111 = shuffled<0, 2>(t72, t75);
        const P t112 = shuffled<0, 2>(t87, t90);
        const P t113 = t111 + t112;
        const P t114 = t111 - t112;
        const P t115 = t109 + t113;
        const P t116 = shuffled<0, 2>(t38, t42);
        const P t117 = t115 + t116;
        const P t118 = c[0] * t109;
        const P t119 = c[1] * t113;
        const P t120 = t118 - t119;
        const P t121 = t120 + t116;
        const P t122 = c[2] * t114;
        const P t123 = c[3] * t110;
        const P t124 = t122 - t123;
        const P t125 = c[1] * t109;
        const P t126 = t116 - t125;
        const P t127 = c[0] * t113;
        const P t128 = t126 + t127;
        const P t129 = c[2] * t110;
        const P t130 = c[3] * t114;
        const P t131 = t129 + t130;
        const P t132 = shuffled<1, 3>(t102, t105);
        const P t133 = shuffled<1, 3>(t54, t58);
        // real block of 5
        const P t134 = t132 - t133;
        const P t135 = t133 + t132;
        const P t136 = shuffled<1, 3>(t72, t75);
        const P t137 = shuffled<1, 3>(t87, t90);
        const P t138 = t136 + t137;
        const P t139 = t136 - t137;
        const P t140 = t134 + t138;
        const P t141 = shuffled<1, 3>(t38, t42);
        const P t142 = t140 + t141;
        const P t143 = c[0] * t134;
        const P t144 = c[1] * t138;
        const P t145 = t143 - t144;
        const P t146 = t145 + t141;
        const P t147 = c[3] * t135;
        const P t148 = c[2] * t139;
        const P t149 = t147 + t148;
        const P t150 = c[1] * t134;
        const P t151 = t141 - t150;
        const P t152 = c[0] * t138;
        const P t153 = t151 + t152;
        const P t154 = c[2] * t135;
        const P t155 = c[3] * t139;
        const P t156 = t154 - t155;
        // spectrum block of 11, multiplier 4
        const P t157 = c[12] * t117;
        const P t158 = t26 - t157;
        const P t159 = c[4] * t156;
        const P t160 = c[5] * t153;
        const P t161 = t159 - t160;
        const P t162 = c[5] * t156;
        const P t163 = c[4] * t153;
        const P t164 = t162 + t163;
        const P t165 = c[6] * t124;
        const P t166 = c[7] * t121;
        const P t167 = t165 - t166;
        const P t168 = c[7] * t124;
        const P t169 = c[6] * t121;
        const P t170 = t168 + t169;
        const P t171 = c[8] * t149;
        const P t172 = c[9] * t146;
        const P t173 = t171 - t172;
        const P t174 = c[9] * t149;
        const P t175 = c[8] * t146;
        const P t176 = t174 + t175;
        const P t177 = c[10] * t131;
        const P t178 = c[11] * t128;
        const P t179 = t177 - t178;
        const P t180 = c[11] * t131;
        const P t181 = c[10] * t128;
        const P t182 = t180 + t181;
        const P t183 = c[13] * t142;
        // spectrum block of 2
        const P t184 = t158 - t183;
        const P t185 = t158 + t183;
        // complex block of 2
        const P t186 = t170 + t176;
        const P t187 = t167 + t173;
        const P t188 = t176 - t170;
        const P t189 = t167 - t173;
        // complex block of 2
        const P t190 = t182 - t164;
        const P t191 = t179 + t161;
        const P t192 = t182 + t164;
        const P t193 = t179 - t161;
        // spectrum block of 5, multiplier 2
        const P t194 = t187 + t191;
        const P t195 = t194 + t184;
        io.out(40, 29, t195);
        const P t196 = c[0] * t187;
        const P t197 = c[1] * t191;
        const P t198 = t196 - t197;
        const P t199 = t198 + t184;
        const P t200 = c[2] * t190;
        const P t201 = c[3] * t186;
        const P t202 = t200 - t201;
        const P t203 = t199 - t202;
        io.out(24, 13, t203);
        const P t204 = t199 + t202;
        io.out(8, 41, t204);
        const P t205 = c[1] * t187;
        const P t206 = t184 - t205;
        const P t207 = c[0] * t191;
        const P t208 = t206 + t207;
        const P t209 = c[2] * t186;
        const P t210 = c[3] * t190;
        const P t211 = t209 + t210;
        const P t212 = t208 + t211;
        io.out(32, 21, t212);
        const P t213 = t208 - t211;
        io.out(28, 17, t213);
        // spectrum block of 5, multiplier 2
        const P t214 = t189 + t193;
        const P t215 = t214 + t185;
        io.out(4, 37, t215);
        const P t216 = c[0] * t189;
        const P t217 = c[1] * t193;
        const P t218 = t216 - t217;
        const P t219 = t218 + t185;
        const P t220 = c[3] * t188;
        const P t221 = c[2] * t192;
        const P t222 = t220 + t221;
        const P t223 = t219 - t222;
        io.out(20, 9, t223);
        const P t224 = t219 + t222;
        io.out(36, 25, t224);
        const P t225 = c[1] * t189;
        const P t226 = t185 - t225;
        const P t227 = c[0] * t193;
        const P t228 = t226 + t227;
        const P t229 = c[2] * t188;
        const P t230 = c[3] * t192;
        const P t231 = t229 - t230;
        const P t232 = t228 - t231;
        io.out(12, 1, t232);
        const P t233 = t228 + t231;
        io.out(16, 5, t233);
        // spectrum block of 11, multiplier 4
        const P t234 = t26 + t117;
        io.out(0, 33, t234);
        const P t235 = shuffled<0, 2>(t55, t59);
        const P t236 = shuffled<0, 2>(t103, t106);
        // real block of 5
        const P t237 = t235 + t236;
        const P t238 = t235 - t236;
        const P t239 = shuffled<0, 2>(t73, t76);
        const P t240 = shuffled<0, 2>(t88, t91);
        const P t241 = t239 + t240;
        const P t242 = t239 - t240;
        const P t243 = t237 + t241;
        const P t244 = shuffled<0, 2>(t39, t43);
        const P t245 = t243 + t244;
        const P t246 = c[0] * t237;
        const P t247 = c[1] * t241;
        const P t248 = t246 - t247;
        const P t249 = t248 + t244;
        const P t250 = c[2] * t242;
        const P t251 = c[3] * t238;
        const P t252 = t250 - t251;
        const P t253 = c[1] * t237;
        const P t254 = t244 - t253;
        const P t255 = c[0] * t241;
        const P t256 = t254 + t255;
        const P t257 = c[2] * t238;
        const P t258 = c[3] * t242;
        const P t259 = t257 + t258;
        const P t260 = shuffled<1, 3>(t103, t106);
        const P t261 = shuffled<1, 3>(t55, t59);
        // real block of 5
        const P t262 = t260 - t261;
        const P t263 = t261 + t260;
        const P t264 = shuffled<1, 3>(t73, t76);
        const P t265 = shuffled<1, 3>(t88, t91);
        const P t266 = t264 + t265;
        const P t267 = t264 - t265;
        const P t268 = t262 + t266;
        const P t269 = shuffled<1, 3>(t39, t43);
        const P t270 = t268 + t269;
        const P t271 = c[0] * t262;
        const P t272 = c[1] * t266;
        const P t273 = t271 - t272;
        const P t274 = t273 + t269;
        const P t275 = c[3] * t263;
        const P t276 = c[2] * t267;
        const P t277 = t275 + t276;
        const P t278 = c[1] * t262;
        const P t279 = t269 - t278;
        const P t280 = c[0] * t266;
        const P t281 = t279 + t280;
        const P t282 = c[2] * t263;
        const P t283 = c[3] * t267;
        const P t284 = t282 - t283;
        // spectrum block of 11, multiplier 4
        const P t285 = c[12] * t245;
        const P t286 = t27 - t285;
        const P t287 = c[4] * t284;
        const P t288 = c[5] * t281;
        const P t289 = t287 - t288;
        const P t290 = c[5] * t284;
        const P t291 = c[4] * t281;
        const P t292 = t290 + t291;
        const P t293 = c[6] * t252;
        const P t294 = c[7] * t249;
        const P t295 = t293 - t294;
        const P t296 = c[7] * t252;
        const P t297 = c[6] * t249;
        const P t298 = t296 + t297;
        const P t299 = c[8] * t277;
        const P t300 = c[9] * t274;
        const P t301 = t299 - t300;
        const P t302 = c[9] * t277;
        const P t303 = c[8] * t274;
        const P t304 = t302 + t303;
        const P t305 = c[10] * t259;
        const P t306 = c[11] * t256;
        const P t307 = t305 - t306;
        const P t308 = c[11] * t259;
        const P t309 = c[10] * t256;
        const P t310 = t308 + t309;
        const P t311 = c[13] * t270;
        // spectrum block of 2
        const P t312 = t286 - t311;
        const P t313 = t286 + t311;
        // complex block of 2
        const P t314 = t298 + t304;
        const P t315 = t295 + t301;
        const P t316 = t304 - t298;
        const P t317 = t295 - t301;
        // complex block of 2
        const P t318 = t310 - t292;
        const P t319 = t307 + t289;
        const P t320 = t310 + t292;
        const P t321 = t307 - t289;
        // spectrum block of 5, multiplier 2
        const P t322 = t315 + t319;
        const P t323 = t322 + t312;
        io.out(18, 7, t323);
        const P t324 = c[0] * t315;
        const P t325 = c[1] * t319;
        const P t326 = t324 - t325;
        const P t327 = t326 + t312;
        const P t328 = c[2] * t318;
        const P t329 = c[3] * t314;
        const P t330 = t328 - t329;
        const P t331 = t327 - t330;
        io.out(2, 35, t331);
        const P t332 = t327 + t330;
        io.out(30, 19, t332);
        const P t333 = c[1] * t315;
        const P t334 = t312 - t333;
        const P t335 = c[0] * t319;
        const P t336 = t334 + t335;
        const P t337 = c[2] * t314;
        const P t338 = c[3] * t318;
        const P t339 = t337 + t338;
        const P t340 = t336 + t339;
        io.out(10, 43, t340);
        const P t341 = t336 - t339;
        io.out(6, 39, t341);
        // spectrum block of 5, multiplier 2
        const P t342 = t317 + t321;
        const P t343 = t342 + t313;
        io.out(26, 15, t343);
        const P t344 = c[0] * t317;
        const P t345 = c[1] * t321;
        const P t346 = t344 - t345;
        const P t347 = t346 + t313;
        const P t348 = c[3] * t316;
        const P t349 = c[2] * t320;
        const P t350 = t348 + t349;
        const P t351 = t347 - t350;
        io.out(42, 31, t351);
        const P t352 = t347 + t350;
        io.out(14, 3, t352);
        const P t353 = c[1] * t317;
        const P t354 = t313 - t353;
        const P t355 = c[0] * t321;
        const P t356 = t354 + t355;
        const P t357 = c[2] * t316;
        const P t358 = c[3] * t320;
        const P t359 = t357 - t358;
        const P t360 = t356 - t359;
        io.out(34, 23, t360);
        const P t361 = t356 + t359;
        io.out(38, 27, t361);
        // spectrum block of 11, multiplier 4
        const P t362 = t27 + t245;
        io.out(22, 11, t362);
    }
};

}  // namespace zulg
