// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 49.
// Hartley transform of 49 points, form F; two lanes to a register.
// 134 sums, 108 differences, 162 products of registers, which do the 829 steps of the graph, those with
// `scale` included; 108 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<49> {
    static constexpr int steps = 829;  // with `scale`
    static constexpr double inverseRoot = 0.14285714285714285;  // 1/sqrt(49), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 4/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.7183493500977276,  // c[6]: cos 2 pi 6/49
        0.6956825506034864,  // c[7]: sin 2 pi 6/49
        0.9672948630390295,  // c[8]: cos 2 pi 2/49
        0.2536545839095074,  // c[9]: sin 2 pi 2/49
        0.9269167573460217,  // c[10]: cos 2 pi 3/49
        0.37526700487937414,  // c[11]: sin 2 pi 3/49
        0.8713187041233893,  // c[12]: cos 2 pi 4/49
        0.4907175520039379,  // c[13]: sin 2 pi 4/49
        0.03205157757165517,  // c[14]: cos 2 pi 12/49
        0.9994862162006879,  // c[15]: sin 2 pi 12/49
        0.9917900138232462,  // c[16]: cos 2 pi 1/49
        0.12787716168450602,  // c[17]: sin 2 pi 1/49
        0.8014136218679566,  // c[18]: cos 2 pi 5/49
        0.598110530491216,  // c[19]: sin 2 pi 5/49
        0.518392568310525,  // c[20]: cos 2 pi 8/49
        0.8551427630053462,  // c[21]: sin 2 pi 8/49
        0.28452758663103245,  // c[22]: cos 2 pi 10/49
        0.9586678530366606,  // c[23]: sin 2 pi 10/49
        0.40478334312239383,  // c[24]: cos 2 pi 9/49
        0.9144126230158125,  // c[25]: sin 2 pi 9/49
        0.3453650544213076,  // c[26]: -cos 2 pi 15/49
        0.9384684220497604,  // c[27]: sin 2 pi 15/49
        0.6723008902613168,  // c[28]: -cos 2 pi 18/49
        0.7402779970753155,  // c[29]: sin 2 pi 18/49
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x7_8 = io.in(7, 8);
        const P x42_43 = io.in(42, 43);
        // real block of 7
        const P t0 = x7_8 + x42_43;
        const P t1 = x7_8 - x42_43;
        const P x35_36 = io.in(35, 36);
        const P x14_15 = io.in(14, 15);
        const P t2 = x35_36 + x14_15;
        const P t3 = x35_36 - x14_15;
        const P x28_29 = io.in(28, 29);
        const P x21_22 = io.in(21, 22);
        const P t4 = x28_29 + x21_22;
        const P t5 = x28_29 - x21_22;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x0_1 = io.in(0, 1);
        const P t8 = t7 + x0_1;
        const P t9 = c[0] * t0;
        const P t10 = c[1] * t2;
        const P t11 = t9 - t10;
        const P t12 = c[2] * t4;
        const P t13 = t11 - t12;
        const P t14 = t13 + x0_1;
        const P t15 = c[3] * t3;
        const P t16 = c[4] * t5;
        const P t17 = t15 + t16;
        const P t18 = c[5] * t1;
        const P t19 = t17 - t18;
        const P t20 = c[1] * t0;
        const P t21 = x0_1 - t20;
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
        const P t32 = x0_1 - t31;
        const P t33 = c[0] * t2;
        const P t34 = t32 + t33;
        const P t35 = c[1] * t4;
        const P t36 = t34 - t35;
        const P t37 = c[3] * t5;
        const P t38 = c[4] * t1;
        const P t39 = t37 - t38;
        const P t40 = c[5] * t3;
        const P t41 = t39 - t40;
        const P x9_10 = io.in(9, 10);
        const P x44_45 = io.in(44, 45);
        // real block of 7
        const P t42 = x9_10 + x44_45;
        const P t43 = x9_10 - x44_45;
        const P x37_38 = io.in(37, 38);
        const P x16_17 = io.in(16, 17);
        const P t44 = x37_38 + x16_17;
        const P t45 = x37_38 - x16_17;
        const P x30_31 = io.in(30, 31);
        const P x23_24 = io.in(23, 24);
        const P t46 = x30_31 + x23_24;
        const P t47 = x30_31 - x23_24;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P x2_3 = io.in(2, 3);
        const P t50 = t49 + x2_3;
        const P t51 = c[0] * t42;
        const P t52 = c[1] * t44;
        const P t53 = t51 - t52;
        const P t54 = c[2] * t46;
        const P t55 = t53 - t54;
        const P t56 = t55 + x2_3;
        const P t57 = c[3] * t45;
        const P t58 = c[4] * t47;
        const P t59 = t57 + t58;
        const P t60 = c[5] * t43;
        const P t61 = t59 - t60;
        const P t62 = c[1] * t42;
        const P t63 = x2_3 - t62;
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
        const P t74 = x2_3 - t73;
        const P t75 = c[0] * t44;
        const P t76 = t74 + t75;
        const P t77 = c[1] * t46;
        const P t78 = t76 - t77;
        const P t79 = c[3] * t47;
        const P t80 = c[4] * t43;
        const P t81 = t79 - t80;
        const P t82 = c[5] * t45;
        const P t83 = t81 - t82;
        const P x11_12 = io.in(11, 12);
        const P x46_47 = io.in(46, 47);
        // real block of 7
        const P t84 = x11_12 + x46_47;
        const P t85 = x11_12 - x46_47;
        const P x39_40 = io.in(39, 40);
        const P x18_19 = io.in(18, 19);
        const P t86 = x39_40 + x18_19;
        const P t87 = x39_40 - x18_19;
        const P x32_33 = io.in(32, 33);
        const P x25_26 = io.in(25, 26);
        const P t88 = x32_33 + x25_26;
        const P t89 = x32_33 - x25_26;
        const P t90 = t84 + t86;
        const P t91 = t90 + t88;
        const P x4_5 = io.in(4, 5);
        const P t92 = t91 + x4_5;
        const P t93 = c[0] * t84;
        const P t94 = c[1] * t86;
        const P t95 = t93 - t94;
        const P t96 = c[2] * t88;
        const P t97 = t95 - t96;
        const P t98 = t97 + x4_5;
        const P t99 = c[3] * t87;
        const P t100 = c[4] * t89;
        const P t101 = t99 + t100;
        const P t102 = c[5] * t85;
        const P t103 = t101 - t102;
        const P t104 = c[1] * t84;
        const P t105 = x4_5 - t104;
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
        const P t116 = x4_5 - t115;
        const P t117 = c[0] * t86;
        const P t118 = t116 + t117;
        const P t119 = c[1] * t88;
        const P t120 = t118 - t119;
        const P t121 = c[3] * t89;
        const P t122 = c[4] * t85;
        const P t123 = t121 - t122;
        const P t124 = c[5] * t87;
        const P t125 = t123 - t124;
        const V x13 = io.in(13);
        const V x48 = io.in(48);
        // real block of 7
        const V t126 = x13 + x48;
        const V x41 = io.in(41);
        const V t127 = part<1>(t92);
        const P t128 = joined(x41, t127);
        const V x20 = io.in(20);
        const V t129 = part<0>(t50);
        const P t130 = joined(x20, t129);
        const P t131 = t128 + t130;
        const V t132 = part<0>(t131);
        const V t133 = t126 + t132;
        const V x34 = io.in(34);
        const V t134 = part<0>(t92);
        const P t135 = joined(x34, t134);
        const V x27 = io.in(27);
        const V t136 = part<1>(t50);
        const P t137 = joined(x27, t136);
        const P t138 = t135 + t137;
        const V t139 = part<0>(t138);
        const V t140 = t133 + t139;
        const V x6 = io.in(6);
        const V t141 = t140 + x6;
        const V t142 = part<1>(t8);
        // real block of 7
        const V t143 = t142 + t141;
        const P t144 = joined(x13, t142);
        const P t145 = joined(x48, t141);
        // real block of 7
        const P t146 = t144 - t145;
        const P t147 = t128 - t130;
        const P t148 = t135 - t137;
        const V t149 = part<1>(t131);
        // real block of 7
        const V t150 = t143 + t149;
        const V t151 = part<1>(t138);
        const V t152 = t150 + t151;
        const V t153 = part<0>(t8);
        const V t154 = t152 + t153;
        io.out(0, t154);
        const P t155 = joined(t126, t143);
        // real block of 7
        const P t156 = c[0] * t155;
        const P t157 = c[1] * t131;
        const P t158 = t156 - t157;
        const P t159 = c[2] * t138;
        const P t160 = t158 - t159;
        const P t161 = joined(x6, t153);
        const P t162 = t160 + t161;
        const P t163 = c[3] * t147;
        const P t164 = c[4] * t148;
        const P t165 = t163 + t164;
        const P t166 = c[5] * t146;
        const P t167 = t165 - t166;
        const P t168 = c[1] * t155;
        const P t169 = t161 - t168;
        const P t170 = c[2] * t131;
        const P t171 = t169 - t170;
        const P t172 = c[0] * t138;
        const P t173 = t171 + t172;
        const P t174 = c[3] * t146;
        const P t175 = c[4] * t147;
        const P t176 = t174 + t175;
        const P t177 = c[5] * t148;
        const P t178 = t176 + t177;
        const P t179 = c[2] * t155;
        const P t180 = t161 - t179;
        const P t181 = c[0] * t131;
        const P t182 = t180 + t181;
        const P t183 = c[1] * t138;
        const P t184 = t182 - t183;
        const P t185 = c[3] * t148;
        const P t186 = c[4] * t146;
        const P t187 = t185 - t186;
        const P t188 = c[5] * t147;
        const P t189 = t187 - t188;
        const P t190 = shuffled<1, 3>(t14, t19);
        // real block of 49
        const P t191 = c[16] * t190;
        const P t192 = shuffled<1, 0>(t190);
        const P t193 = P(c[17], -c[17]) * t192;
        const P t194 = t191 + t193;
        const P t195 = shuffled<0, 2>(t56, t61);
        const P t196 = c[8] * t195;
        const P t197 = shuffled<1, 0>(t195);
        const P t198 = P(c[9], -c[9]) * t197;
        const P t199 = t196 + t198;
        const P t200 = shuffled<1, 3>(t56, t61);
        const P t201 = c[10] * t200;
        const P t202 = shuffled<1, 0>(t200);
        const P t203 = P(c[11], -c[11]) * t202;
        const P t204 = t201 + t203;
        const P t205 = shuffled<0, 2>(t98, t103);
        const P t206 = c[12] * t205;
        const P t207 = shuffled<1, 0>(t205);
        const P t208 = P(c[13], -c[13]) * t207;
        const P t209 = t206 + t208;
        const P t210 = shuffled<1, 3>(t98, t103);
        const P t211 = c[18] * t210;
        const P t212 = shuffled<1, 0>(t210);
        const P t213 = P(c[19], -c[19]) * t212;
        const P t214 = t211 + t213;
        const P t215 = shuffled<0, 2>(t162, t167);
        const P t216 = c[6] * t215;
        const P t217 = shuffled<1, 0>(t215);
        const P t218 = P(c[7], -c[7]) * t217;
        const P t219 = t216 + t218;
        // complex block of 7
        const P t220 = t194 + t219;
        const P t221 = t194 - t219;
        const P t222 = t214 + t199;
        const P t223 = t214 - t199;
        const P t224 = t209 + t204;
        const P t225 = t209 - t204;
        const P t226 = t220 + t222;
        const P t227 = t226 + t224;
        const P t228 = shuffled<0, 2>(t14, t19);
        const P t229 = t227 + t228;
        const P t230 = c[0] * t220;
        const P t231 = c[1] * t222;
        const P t232 = t230 - t231;
        const P t233 = c[2] * t224;
        const P t234 = t232 - t233;
        const P t235 = t234 + t228;
        const P t236 = c[5] * t221;
        const P t237 = c[3] * t223;
        const P t238 = t236 - t237;
        const P t239 = c[4] * t225;
        const P t240 = t238 - t239;
        const P t241 = shuffled<1, 0>(t240);
        const P t242 = flipped<0, 1>(t241);
        const P t243 = t235 + t242;
        const P t244 = t235 - t242;
        const P t245 = c[1] * t220;
        const P t246 = t228 - t245;
        const P t247 = c[2] * t222;
        const P t248 = t246 - t247;
        const P t249 = c[0] * t224;
        const P t250 = t248 + t249;
        const P t251 = c[3] * t221;
        const P t252 = c[4] * t223;
        const P t253 = t251 + t252;
        const P t254 = c[5] * t225;
        const P t255 = t253 + t254;
        const P t256 = shuffled<1, 0>(t255);
        const P t257 = flipped<0, 1>(t256);
        const P t258 = t250 + t257;
        const P t259 = t250 - t257;
        const P t260 = c[2] * t220;
        const P t261 = t228 - t260;
        const P t262 = c[0] * t222;
        const P t263 = t261 + t262;
        const P t264 = c[1] * t224;
        const P t265 = t263 - t264;
        const P t266 = c[4] * t221;
        const P t267 = c[5] * t223;
        const P t268 = t266 + t267;
        const P t269 = c[3] * t225;
        const P t270 = t268 - t269;
        const P t271 = shuffled<1, 0>(t270);
        const P t272 = flipped<0, 1>(t271);
        const P t273 = t265 + t272;
        const P t274 = t265 - t272;
        const P t275 = shuffled<1, 3>(t25, t30);
        // real block of 49
        const P t276 = c[8] * t275;
        const P t277 = shuffled<1, 0>(t275);
        const P t278 = P(-c[9], c[9]) * t277;
        const P t279 = t276 + t278;
        const P t280 = shuffled<0, 2>(t67, t72);
        const P t281 = c[12] * t280;
        const P t282 = shuffled<1, 0>(t280);
        const P t283 = P(-c[13], c[13]) * t282;
        const P t284 = t281 + t283;
        const P t285 = shuffled<1, 3>(t67, t72);
        const P t286 = c[6] * t285;
        const P t287 = shuffled<1, 0>(t285);
        const P t288 = P(-c[7], c[7]) * t287;
        const P t289 = t286 + t288;
        const P t290 = shuffled<0, 2>(t109, t114);
        const P t291 = c[20] * t290;
        const P t292 = shuffled<1, 0>(t290);
        const P t293 = P(-c[21], c[21]) * t292;
        const P t294 = t291 + t293;
        const P t295 = shuffled<1, 3>(t109, t114);
        const P t296 = c[22] * t295;
        const P t297 = shuffled<1, 0>(t295);
        const P t298 = P(-c[23], c[23]) * t297;
        const P t299 = t296 + t298;
        const P t300 = shuffled<0, 2>(t173, t178);
        const P t301 = c[14] * t300;
        const P t302 = shuffled<1, 0>(t300);
        const P t303 = P(-c[15], c[15]) * t302;
        const P t304 = t301 + t303;
        // complex block of 7
        const P t305 = t279 + t304;
        const P t306 = shuffled<0, 3>(t279, t304);
        const P t307 = shuffled<0, 3>(t304, t279);
        const P t308 = t306 - t307;
        const P t309 = t299 + t284;
        const P t310 = shuffled<0, 3>(t299, t284);
        const P t311 = shuffled<0, 3>(t284, t299);
        const P t312 = t310 - t311;
        const P t313 = t294 + t289;
        const P t314 = shuffled<0, 3>(t294, t289);
        const P t315 = shuffled<0, 3>(t289, t294);
        const P t316 = t314 - t315;
        const P t317 = t305 + t309;
        const P t318 = t317 + t313;
        const P t319 = shuffled<0, 2>(t25, t30);
        const P t320 = t318 + t319;
        const P t321 = c[0] * t305;
        const V t322 = part<0>(t321);
        const P t323 = c[1] * t309;
        const V t324 = part<0>(t323);
        const V t325 = t322 - t324;
        const P t326 = c[2] * t313;
        const V t327 = part<0>(t326);
        const V t328 = t325 - t327;
        const V t329 = part<0>(t30);
        const V t330 = part<1>(t321);
        const V t331 = t329 + t330;
        const V t332 = part<1>(t323);
        const V t333 = t332 - t331;
        const P t334 = joined(t328, t333);
        const P t335 = shuffled<0, 3>(t319, t326);
        const P t336 = t334 + t335;
        const P t337 = c[5] * t308;
        const P t338 = c[3] * t312;
        const P t339 = t337 - t338;
        const P t340 = c[4] * t316;
        const P t341 = t339 - t340;
        const P t342 = shuffled<1, 0>(t341);
        const P t343 = flipped<0, 1>(t342);
        const P t344 = t336 + t343;
        const P t345 = t336 - t343;
        const V t346 = part<0>(t335);
        const P t347 = c[1] * t305;
        const V t348 = part<0>(t347);
        const V t349 = t346 - t348;
        const P t350 = c[2] * t309;
        const V t351 = part<0>(t350);
        const V t352 = t349 - t351;
        const V t353 = part<1>(t347);
        const V t354 = part<1>(t350);
        const V t355 = t353 + t354;
        const P t356 = c[0] * t313;
        const V t357 = part<1>(t356);
        const V t358 = t355 - t357;
        const P t359 = joined(t352, t358);
        const P t360 = shuffled<0, 3>(t356, t319);
        const P t361 = flipped<0, 1>(t360);
        const P t362 = t359 + t361;
        const P t363 = c[3] * t308;
        const P t364 = c[4] * t312;
        const P t365 = t363 + t364;
        const P t366 = c[5] * t316;
        const P t367 = t365 + t366;
        const P t368 = shuffled<1, 0>(t367);
        const P t369 = flipped<0, 1>(t368);
        const P t370 = t362 + t369;
        const P t371 = t362 - t369;
        const P t372 = c[2] * t305;
        const V t373 = part<0>(t372);
        const V t374 = t346 - t373;
        const P t375 = c[0] * t309;
        const V t376 = part<0>(t375);
        const V t377 = t374 + t376;
        const V t378 = part<1>(t372);
        const V t379 = part<1>(t375);
        const V t380 = t378 - t379;
        const P t381 = c[1] * t313;
        const V t382 = part<1>(t381);
        const V t383 = t380 + t382;
        const P t384 = joined(t377, t383);
        const P t385 = shuffled<0, 3>(t381, t360);
        const P t386 = t384 - t385;
        const P t387 = c[4] * t308;
        const P t388 = c[5] * t312;
        const P t389 = t387 + t388;
        const P t390 = c[3] * t316;
        const P t391 = t389 - t390;
        const P t392 = shuffled<1, 0>(t391);
        const P t393 = flipped<0, 1>(t392);
        const P t394 = t386 + t393;
        const P t395 = t386 - t393;
        const P t396 = shuffled<1, 3>(t36, t41);
        // real block of 49
        const P t397 = c[10] * t396;
        const P t398 = shuffled<1, 0>(t396);
        const P t399 = P(c[11], -c[11]) * t398;
        const P t400 = t397 + t399;
        const P t401 = shuffled<0, 2>(t78, t83);
        const P t402 = c[6] * t401;
        const P t403 = shuffled<1, 0>(t401);
        const P t404 = P(c[7], -c[7]) * t403;
        const P t405 = t402 + t404;
        const P t406 = shuffled<1, 3>(t78, t83);
        const P t407 = c[24] * t406;
        const P t408 = shuffled<1, 0>(t406);
        const P t409 = P(c[25], -c[25]) * t408;
        const P t410 = t407 + t409;
        const P t411 = shuffled<0, 2>(t120, t125);
        const P t412 = c[14] * t411;
        const P t413 = shuffled<1, 0>(t411);
        const P t414 = P(c[15], -c[15]) * t413;
        const P t415 = t412 + t414;
        const P t416 = shuffled<1, 3>(t120, t125);
        const P t417 = P(-c[26], c[26]) * t416;
        const P t418 = shuffled<1, 0>(t416);
        const P t419 = c[27] * t418;
        const P t420 = t417 + t419;
        const P t421 = shuffled<0, 2>(t184, t189);
        const P t422 = P(-c[28], c[28]) * t421;
        const P t423 = shuffled<1, 0>(t421);
        const P t424 = c[29] * t423;
        const P t425 = t422 + t424;
        const P t426 = flipped<0, 1>(t425);
        // complex block of 7
        const P t427 = t400 + t426;
        const P t428 = t400 - t426;
        const P t429 = flipped<0, 1>(t420);
        const P t430 = t405 + t429;
        const P t431 = flipped<1, 0>(t405);
        const P t432 = t420 + t431;
        const P t433 = t415 + t410;
        const P t434 = t415 - t410;
        const P t435 = t427 + t430;
        const P t436 = t435 + t433;
        const P t437 = shuffled<0, 2>(t36, t41);
        const P t438 = t436 + t437;
        const P t439 = c[0] * t427;
        const P t440 = c[1] * t430;
        const P t441 = t439 - t440;
        const P t442 = c[2] * t433;
        const P t443 = t441 - t442;
        const P t444 = t443 + t437;
        const P t445 = c[5] * t428;
        const P t446 = P(-c[3], c[3]) * t432;
        const P t447 = t445 + t446;
        const P t448 = c[4] * t434;
        const P t449 = t447 - t448;
        const P t450 = shuffled<1, 0>(t449);
        const P t451 = flipped<0, 1>(t450);
        const P t452 = t444 + t451;
        const P t453 = t444 - t451;
        const P t454 = c[1] * t427;
        const P t455 = t437 - t454;
        const P t456 = c[2] * t430;
        const P t457 = t455 - t456;
        const P t458 = c[0] * t433;
        const P t459 = t457 + t458;
        const P t460 = c[3] * t428;
        const P t461 = P(c[4], -c[4]) * t432;
        const P t462 = t460 + t461;
        const P t463 = c[5] * t434;
        const P t464 = t462 + t463;
        const P t465 = shuffled<1, 0>(t464);
        const P t466 = flipped<0, 1>(t465);
        const P t467 = t459 + t466;
        const P t468 = t459 - t466;
        const P t469 = c[2] * t427;
        const P t470 = t437 - t469;
        const P t471 = c[0] * t430;
        const P t472 = t470 + t471;
        const P t473 = c[1] * t433;
        const P t474 = t472 - t473;
        const P t475 = c[4] * t428;
        const P t476 = P(c[5], -c[5]) * t432;
        const P t477 = t475 + t476;
        const P t478 = c[3] * t434;
        const P t479 = t477 - t478;
        const P t480 = shuffled<1, 0>(t479);
        const P t481 = flipped<0, 1>(t480);
        const P t482 = t474 + t481;
        const P t483 = t474 - t481;
        const V t484 = part<1>(t162);
        const V t485 = part<1>(t167);
        // output stage
        const V t486 = t484 - t485;
        io.out(7, t486);
        const V t487 = t484 + t485;
        io.out(42, t487);
        const P t488 = shuffled<0, 2>(t229, t243);
        const P t489 = shuffled<1, 3>(t229, t243);
        const P t490 = t488 - t489;
        io.out(1, 8, t490);
        const P t491 = t488 + t489;
        io.out(48, 41, t491);
        const P t492 = shuffled<0, 2>(t344, t345);
        const P t493 = shuffled<1, 3>(t344, t345);
        const P t494 = t492 - t493;
        io.out(9, 44, t494);
        const P t495 = t492 + t493;
        io.out(40, 5, t495);
        const P t496 = shuffled<0, 2>(t438, t452);
        const P t497 = shuffled<1, 3>(t438, t452);
        const P t498 = t496 - t497;
        io.out(3, 10, t498);
        const P t499 = t496 + t497;
        io.out(46, 39, t499);
        const V t500 = part<1>(t173);
        const V t501 = part<1>(t178);
        const V t502 = t500 + t501;
        io.out(14, t502);
        const V t503 = t500 - t501;
        io.out(35, t503);
        const P t504 = shuffled<0, 2>(t244, t258);
        const P t505 = shuffled<1, 3>(t244, t258);
        const P t506 = t504 - t505;
        io.out(43, 15, t506);
        const P t507 = t504 + t505;
        io.out(6, 34, t507);
        const P t508 = shuffled<0, 2>(t370, t371);
        const P t509 = shuffled<1, 3>(t370, t371);
        const P t510 = t508 - t509;
        io.out(16, 37, t510);
        const P t511 = t508 + t509;
        io.out(33, 12, t511);
        const P t512 = shuffled<0, 2>(t453, t467);
        const P t513 = shuffled<1, 3>(t453, t467);
        const P t514 = t512 - t513;
        io.out(45, 17, t514);
        const P t515 = t512 + t513;
        io.out(4, 32, t515);
        const V t516 = part<0>(t483);
        const V t517 = part<1>(t483);
        const V t518 = t516 + t517;
        io.out(18, t518);
        const V t519 = t516 - t517;
        io.out(31, t519);
        const P t520 = shuffled<0, 2>(t274, t320);
        const P t521 = shuffled<1, 3>(t274, t320);
        const P t522 = t520 + t521;
        io.out(20, 2, t522);
        const P t523 = t520 - t521;
        io.out(29, 47, t523);
        const V t524 = part<1>(t184);
        const V t525 = part<1>(t189);
        const V t526 = t524 - t525;
        io.out(21, t526);
        const V t527 = t524 + t525;
        io.out(28, t527);
        const P t528 = shuffled<0, 2>(t259, t273);
        const P t529 = shuffled<1, 3>(t259, t273);
        const P t530 = t528 - t529;
        io.out(36, 22, t530);
        const P t531 = t528 + t529;
        io.out(13, 27, t531);
        const P t532 = shuffled<0, 2>(t394, t395);
        const P t533 = shuffled<1, 3>(t394, t395);
        const P t534 = t532 - t533;
        io.out(23, 30, t534);
        const P t535 = t532 + t533;
        io.out(26, 19, t535);
        const P t536 = shuffled<0, 2>(t468, t482);
        const P t537 = shuffled<1, 3>(t468, t482);
        const P t538 = t536 - t537;
        io.out(38, 24, t538);
        const P t539 = t536 + t537;
        io.out(11, 25, t539);
    }
};

}  // namespace zulg
