// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 50.
// Inverse DFT to 50 real points, prime-factor 25, 2; two lanes to a register.
// 101 sums, 77 differences, 136 products of registers, which do the 676 steps of the graph, those with
// `scale` included; 50 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<50> {
    static constexpr int steps = 676;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.5358267949789967,  // c[5]: cos 2 pi 21/25
        0.8443279255020151,  // c[6]: -sin 2 pi 21/25
        0.42577929156507266,  // c[7]: -cos 2 pi 17/25
        0.9048270524660196,  // c[8]: -sin 2 pi 17/25
        0.8763066800438636,  // c[9]: cos 2 pi 23/25
        0.48175367410171527,  // c[10]: -sin 2 pi 23/25
        0.06279051952931337,  // c[11]: cos 2 pi 19/25
        0.9980267284282716,  // c[12]: -sin 2 pi 19/25
        0.9921147013144779,  // c[13]: -cos 2 pi 13/25
        0.12533323356430426,  // c[14]: -sin 2 pi 13/25
        0.7705132427757893,  // c[15]: sin 2 pi 9/25
        0.6374239897486897,  // c[16]: -cos 2 pi 9/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x10 = io.pair(10);
        // doubled bins
        const P t0 = c[0] * x10;
        const P x15 = io.pair(15);
        const P t1 = c[0] * x15;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x20 = io.pair(20);
        const P t3 = c[0] * x20;
        const P x5 = io.pair(5);
        const P t4 = c[0] * x5;
        const P t5 = shuffled<0, 2>(t3, t4);
        // spectrum block of 5, multiplier 2
        const P t6 = t2 + t5;
        const V x0r = io.re(0);
        const V x25r = io.re(25);
        const P t7 = joined(x0r, x25r);
        const P t8 = t6 + t7;
        const P t9 = c[1] * t2;
        const P t10 = c[2] * t5;
        const P t11 = t9 - t10;
        const P t12 = t11 + t7;
        const P t13 = shuffled<1, 3>(t0, t1);
        const P t14 = c[3] * t13;
        const P t15 = shuffled<1, 3>(t3, t4);
        const P t16 = c[4] * t15;
        const P t17 = t14 + t16;
        const P t18 = flipped<1, 0>(t17);
        const P t19 = t12 + t18;
        const P t20 = t12 - t18;
        const P t21 = c[2] * t2;
        const P t22 = t7 - t21;
        const P t23 = c[1] * t5;
        const P t24 = t22 + t23;
        const P t25 = P(-c[3], c[3]) * t15;
        const P t26 = P(c[4], -c[4]) * t13;
        const P t27 = t25 + t26;
        const P t28 = t24 - t27;
        const P t29 = t24 + t27;
        const P x12 = io.pair(12);
        // doubled bins
        const P t30 = c[0] * x12;
        const P x17 = io.pair(17);
        const P t31 = c[0] * x17;
        const P t32 = shuffled<1, 3>(t30, t31);
        const P x8 = io.pair(8);
        const P t33 = c[0] * x8;
        const P x13 = io.pair(13);
        const P t34 = c[0] * x13;
        const P t35 = shuffled<1, 3>(t33, t34);
        // complex block of 5, multiplier 2
        const P t36 = t32 - t35;
        const P t37 = shuffled<0, 2>(t30, t34);
        const P t38 = shuffled<0, 2>(t33, t31);
        const P t39 = t37 + t38;
        const P t40 = t35 + t32;
        const P t41 = t37 - t38;
        const P x22 = io.pair(22);
        // doubled bins
        const P t42 = c[0] * x22;
        const P x7 = io.pair(7);
        const P t43 = c[0] * x7;
        const P t44 = shuffled<1, 3>(t42, t43);
        const P x18 = io.pair(18);
        const P t45 = c[0] * x18;
        const P x3 = io.pair(3);
        const P t46 = c[0] * x3;
        const P t47 = shuffled<1, 3>(t45, t46);
        // complex block of 5, multiplier 2
        const P t48 = t44 - t47;
        const P t49 = shuffled<0, 2>(t45, t43);
        const P t50 = shuffled<0, 2>(t42, t46);
        const P t51 = t49 + t50;
        const P t52 = t44 + t47;
        const P t53 = t49 - t50;
        const P t54 = t36 + t48;
        const P t55 = t39 + t51;
        const P x2 = io.pair(2);
        // doubled bins
        const P t56 = c[0] * x2;
        const P x23 = io.pair(23);
        const P t57 = P(c[0], -c[0]) * x23;
        const P t58 = shuffled<1, 3>(t56, t57);
        // complex block of 5, multiplier 2
        const P t59 = t54 + t58;
        const P t60 = shuffled<0, 2>(t56, t57);
        const P t61 = t55 + t60;
        const P t62 = c[1] * t36;
        const P t63 = c[2] * t48;
        const P t64 = t62 - t63;
        const P t65 = t64 + t58;
        const P t66 = c[1] * t39;
        const P t67 = c[2] * t51;
        const P t68 = t66 - t67;
        const P t69 = t68 + t60;
        const P t70 = c[3] * t40;
        const P t71 = c[4] * t52;
        const P t72 = t70 + t71;
        const P t73 = c[3] * t41;
        const P t74 = c[4] * t53;
        const P t75 = t73 - t74;
        const P t76 = t65 + t75;
        const P t77 = flipped<1, 0>(t72);
        const P t78 = t69 + t77;
        const P t79 = t65 - t75;
        const P t80 = t69 - t77;
        const P t81 = flipped<0, 1>(t58);
        const P t82 = P(-c[2], c[2]) * t36;
        const P t83 = t81 + t82;
        const P t84 = c[1] * t48;
        const P t85 = flipped<0, 1>(t83);
        const P t86 = t84 + t85;
        const P t87 = c[2] * t39;
        const P t88 = t60 - t87;
        const P t89 = c[1] * t51;
        const P t90 = t88 + t89;
        const P t91 = P(-c[3], c[3]) * t52;
        const P t92 = P(c[4], -c[4]) * t40;
        const P t93 = t91 + t92;
        const P t94 = c[4] * t41;
        const P t95 = c[3] * t53;
        const P t96 = t94 + t95;
        const P t97 = t86 + t96;
        const P t98 = t90 - t93;
        const P t99 = t86 - t96;
        const P t100 = t90 + t93;
        // spectrum block of 25, multiplier 2
        const P t101 = c[9] * t98;
        const P t102 = c[10] * t97;
        const P t103 = t101 - t102;
        const P t104 = c[9] * t97;
        const P t105 = c[10] * t98;
        const P t106 = t104 + t105;
        const P t107 = c[5] * t80;
        const P t108 = c[6] * t79;
        const P t109 = t107 - t108;
        const P t110 = c[5] * t79;
        const P t111 = c[6] * t80;
        const P t112 = t110 + t111;
        const P t113 = c[11] * t78;
        const P t114 = c[12] * t76;
        const P t115 = t113 - t114;
        const P t116 = c[11] * t76;
        const P t117 = c[12] * t78;
        const P t118 = t116 + t117;
        const P t119 = c[7] * t100;
        const P t120 = c[8] * t99;
        const P t121 = t119 + t120;
        const P t122 = c[8] * t100;
        const P t123 = c[7] * t99;
        const P t124 = t122 - t123;
        const P x14 = io.pair(14);
        // doubled bins
        const P t125 = c[0] * x14;
        const P x19 = io.pair(19);
        const P t126 = c[0] * x19;
        const P t127 = shuffled<1, 3>(t125, t126);
        const P x6 = io.pair(6);
        const P t128 = c[0] * x6;
        const P x11 = io.pair(11);
        const P t129 = c[0] * x11;
        const P t130 = shuffled<1, 3>(t128, t129);
        // complex block of 5, multiplier 2
        const P t131 = t127 - t130;
        const P t132 = shuffled<0, 2>(t125, t129);
        const P t133 = shuffled<0, 2>(t128, t126);
        const P t134 = t132 + t133;
        const P t135 = t130 + t127;
        const P t136 = t132 - t133;
        const P x24 = io.pair(24);
        // doubled bins
        const P t137 = c[0] * x24;
        const P x9 = io.pair(9);
        const P t138 = c[0] * x9;
        const P t139 = shuffled<1, 3>(t137, t138);
        const P x16 = io.pair(16);
        const P t140 = c[0] * x16;
        const P x1 = io.pair(1);
        const P t141 = c[0] * x1;
        const P t142 = shuffled<1, 3>(t140, t141);
        // complex block of 5, multiplier 2
        const P t143 = t139 - t142;
        const P t144 = shuffled<0, 2>(t140, t138);
        const P t145 = shuffled<0, 2>(t137, t141);
        const P t146 = t144 + t145;
        const P t147 = t139 + t142;
        const P t148 = t144 - t145;
        const P t149 = t131 + t143;
        const P t150 = t134 + t146;
        const P x4 = io.pair(4);
        // doubled bins
        const P t151 = c[0] * x4;
        const P x21 = io.pair(21);
        const P t152 = P(c[0], -c[0]) * x21;
        const P t153 = shuffled<1, 3>(t151, t152);
        // complex block of 5, multiplier 2
        const P t154 = t149 + t153;
        const P t155 = shuffled<0, 2>(t151, t152);
        const P t156 = t150 + t155;
        const P t157 = c[1] * t131;
        const P t158 = c[2] * t143;
        const P t159 = t157 - t158;
        const P t160 = t159 + t153;
        const P t161 = c[1] * t134;
        const P t162 = c[2] * t146;
        const P t163 = t161 - t162;
        const P t164 = t163 + t155;
        const P t165 = c[3] * t135;
        const P t166 = c[4] * t147;
        const P t167 = t165 + t166;
        const P t168 = c[3] * t136;
        const P t169 = c[4] * t148;
        const P t170 = t168 - t169;
        const P t171 = t160 + t170;
        const P t172 = flipped<1, 0>(t167);
        const P t173 = t164 + t172;
        const P t174 = t160 - t170;
        const P t175 = t164 - t172;
        const P t176 = flipped<0, 1>(t153);
        const P t177 = P(-c[2], c[2]) * t131;
        const P t178 = t176 + t177;
        const P t179 = c[1] * t143;
        const P t180 = flipped<0, 1>(t178);
        const P t181 = t179 + t180;
        const P t182 = c[2] * t134;
        const P t183 = t155 - t182;
        const P t184 = c[1] * t146;
        const P t185 = t183 + t184;
        const P t186 = P(-c[3], c[3]) * t147;
        const P t187 = P(c[4], -c[4]) * t135;
        const P t188 = t186 + t187;
        const P t189 = c[4] * t136;
        const P t190 = c[3] * t148;
        const P t191 = t189 + t190;
        const P t192 = t181 + t191;
        const P t193 = t185 - t188;
        const P t194 = t181 - t191;
        const P t195 = t185 + t188;
        // spectrum block of 25, multiplier 2
        const P t196 = c[5] * t193;
        const P t197 = c[6] * t192;
        const P t198 = t196 - t197;
        const P t199 = c[5] * t192;
        const P t200 = c[6] * t193;
        const P t201 = t199 + t200;
        const P t202 = c[7] * t175;
        const P t203 = c[8] * t174;
        const P t204 = t202 + t203;
        const P t205 = c[8] * t175;
        const P t206 = c[7] * t174;
        const P t207 = t205 - t206;
        const P t208 = c[13] * t173;
        const P t209 = c[14] * t171;
        const P t210 = t208 + t209;
        const P t211 = c[14] * t173;
        const P t212 = c[13] * t171;
        const P t213 = t211 - t212;
        const P t214 = c[15] * t194;
        const P t215 = c[16] * t195;
        const P t216 = t214 - t215;
        const P t217 = c[16] * t194;
        const P t218 = c[15] * t195;
        const P t219 = t217 + t218;
        // spectrum block of 5, multiplier 2
        const P t220 = t61 + t156;
        const P t221 = t220 + t8;
        const P t222 = c[1] * t61;
        const P t223 = c[2] * t156;
        const P t224 = t222 - t223;
        const P t225 = t224 + t8;
        const P t226 = c[3] * t59;
        const P t227 = c[4] * t154;
        const P t228 = t226 + t227;
        const P t229 = t225 - t228;
        const P t230 = t225 + t228;
        const P t231 = c[2] * t61;
        const P t232 = t8 - t231;
        const P t233 = c[1] * t156;
        const P t234 = t232 + t233;
        const P t235 = c[4] * t59;
        const P t236 = c[3] * t154;
        const P t237 = t235 - t236;
        const P t238 = t234 - t237;
        const P t239 = t234 + t237;
        // spectrum block of 5, multiplier 2
        const P t240 = t103 + t198;
        const P t241 = t240 + t28;
        const P t242 = c[1] * t103;
        const P t243 = c[2] * t198;
        const P t244 = t242 - t243;
        const P t245 = t244 + t28;
        const P t246 = c[3] * t106;
        const P t247 = c[4] * t201;
        const P t248 = t246 + t247;
        const P t249 = t245 - t248;
        const P t250 = t245 + t248;
        const P t251 = c[2] * t103;
        const P t252 = t28 - t251;
        const P t253 = c[1] * t198;
        const P t254 = t252 + t253;
        const P t255 = c[4] * t106;
        const P t256 = c[3] * t201;
        const P t257 = t255 - t256;
        const P t258 = t254 - t257;
        const P t259 = t254 + t257;
        // spectrum block of 5, multiplier 2
        const P t260 = t109 - t204;
        const P t261 = t260 + t20;
        const P t262 = c[1] * t109;
        const P t263 = c[2] * t204;
        const P t264 = t262 + t263;
        const P t265 = t264 + t20;
        const P t266 = c[3] * t112;
        const P t267 = c[4] * t207;
        const P t268 = t266 + t267;
        const P t269 = t265 - t268;
        const P t270 = t265 + t268;
        const P t271 = c[2] * t109;
        const P t272 = t20 - t271;
        const P t273 = c[1] * t204;
        const P t274 = t272 - t273;
        const P t275 = c[4] * t112;
        const P t276 = c[3] * t207;
        const P t277 = t275 - t276;
        const P t278 = t274 - t277;
        const P t279 = t274 + t277;
        // spectrum block of 5, multiplier 2
        const P t280 = t115 - t210;
        const P t281 = t280 + t19;
        const P t282 = c[1] * t115;
        const P t283 = c[2] * t210;
        const P t284 = t282 + t283;
        const P t285 = t284 + t19;
        const P t286 = c[3] * t118;
        const P t287 = c[4] * t213;
        const P t288 = t286 + t287;
        const P t289 = t285 - t288;
        const P t290 = t285 + t288;
        const P t291 = c[2] * t115;
        const P t292 = t19 - t291;
        const P t293 = c[1] * t210;
        const P t294 = t292 - t293;
        const P t295 = c[4] * t118;
        const P t296 = c[3] * t213;
        const P t297 = t295 - t296;
        const P t298 = t294 - t297;
        const P t299 = t294 + t297;
        // spectrum block of 5, multiplier 2
        const P t300 = t216 - t121;
        const P t301 = t300 + t29;
        const P t302 = c[1] * t121;
        const P t303 = t29 - t302;
        const P t304 = c[2] * t216;
        const P t305 = t303 - t304;
        const P t306 = c[3] * t124;
        const P t307 = c[4] * t219;
        const P t308 = t306 - t307;
        const P t309 = t305 - t308;
        const P t310 = t305 + t308;
        const P t311 = c[2] * t121;
        const P t312 = c[1] * t216;
        const P t313 = t311 + t312;
        const P t314 = t313 + t29;
        const P t315 = c[4] * t124;
        const P t316 = c[3] * t219;
        const P t317 = t315 + t316;
        const P t318 = t314 - t317;
        const P t319 = t314 + t317;
        const P t320 = shuffled<0, 2>(t221, t241);
        const P t321 = shuffled<1, 3>(t221, t241);
        // spectrum block of 2
        const P t322 = t320 + t321;
        io.out(0, 2, t322);
        const P t323 = t320 - t321;
        io.out(25, 27, t323);
        const P t324 = shuffled<0, 2>(t261, t281);
        const P t325 = shuffled<1, 3>(t261, t281);
        // spectrum block of 2
        const P t326 = t324 + t325;
        io.out(4, 6, t326);
        const P t327 = t324 - t325;
        io.out(29, 31, t327);
        const P t328 = shuffled<0, 2>(t301, t238);
        const P t329 = shuffled<1, 3>(t301, t238);
        // spectrum block of 2
        const P t330 = t328 + t329;
        io.out(8, 10, t330);
        const P t331 = t328 - t329;
        io.out(33, 35, t331);
        const P t332 = shuffled<0, 2>(t258, t278);
        const P t333 = shuffled<1, 3>(t258, t278);
        // spectrum block of 2
        const P t334 = t332 + t333;
        io.out(12, 14, t334);
        const P t335 = t332 - t333;
        io.out(37, 39, t335);
        const P t336 = shuffled<0, 2>(t298, t318);
        const P t337 = shuffled<1, 3>(t298, t318);
        // spectrum block of 2
        const P t338 = t336 + t337;
        io.out(16, 18, t338);
        const P t339 = t336 - t337;
        io.out(41, 43, t339);
        const P t340 = shuffled<0, 2>(t230, t250);
        const P t341 = shuffled<1, 3>(t230, t250);
        // spectrum block of 2
        const P t342 = t340 + t341;
        io.out(20, 22, t342);
        const P t343 = t340 - t341;
        io.out(45, 47, t343);
        const P t344 = shuffled<0, 2>(t270, t290);
        const P t345 = shuffled<1, 3>(t270, t290);
        // spectrum block of 2
        const P t346 = t344 + t345;
        io.out(24, 26, t346);
        const P t347 = t344 - t345;
        io.out(49, 1, t347);
        const P t348 = shuffled<0, 2>(t310, t229);
        const P t349 = shuffled<1, 3>(t310, t229);
        // spectrum block of 2
        const P t350 = t348 + t349;
        io.out(28, 30, t350);
        const P t351 = t348 - t349;
        io.out(3, 5, t351);
        const P t352 = shuffled<0, 2>(t249, t269);
        const P t353 = shuffled<1, 3>(t249, t269);
        // spectrum block of 2
        const P t354 = t352 + t353;
        io.out(32, 34, t354);
        const P t355 = t352 - t353;
        io.out(7, 9, t355);
        const P t356 = shuffled<0, 2>(t289, t309);
        const P t357 = shuffled<1, 3>(t289, t309);
        // spectrum block of 2
        const P t358 = t356 + t357;
        io.out(36, 38, t358);
        const P t359 = t356 - t357;
        io.out(11, 13, t359);
        const P t360 = shuffled<0, 2>(t239, t259);
        const P t361 = shuffled<1, 3>(t239, t259);
        // spectrum block of 2
        const P t362 = t360 + t361;
        io.out(40, 42, t362);
        const P t363 = t360 - t361;
        io.out(15, 17, t363);
        const P t364 = shuffled<0, 2>(t279, t299);
        const P t365 = shuffled<1, 3>(t279, t299);
        // spectrum block of 2
        const P t366 = t364 + t365;
        io.out(44, 46, t366);
        const P t367 = t364 - t365;
        io.out(19, 21, t367);
        const V t368 = part<0>(t319);
        const V t369 = part<1>(t319);
        // spectrum block of 2
        const V t370 = t368 + t369;
        io.out(48, t370);
        const V t371 = t368 - t369;
        io.out(23, t371);
    }
};

}  // namespace zulg
