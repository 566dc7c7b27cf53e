// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 29.
// Hartley transform of 29 points, form F; two lanes to a register.
// 107 sums, 77 differences, 106 products of registers, which do the 573 steps of the graph, those with
// `scale` included; 70 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<29> {
    static constexpr int steps = 573;  // with `scale`
    static constexpr double inverseRoot = 0.18569533817705186;  // 1/sqrt(29), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.2768145884649087,  // c[6]: P[1] of 29
        0.2670821358430261,  // c[7]: -Q[1] of 29
        0.32142566997698113,  // c[8]: Q[2] of 29
        0.21129297752958617,  // c[9]: P[2] of 29
        0.2491897008367598,  // c[10]: Q[3] of 29
        0.29302504444220384,  // c[11]: P[3] of 29
        0.3290592701972177,  // c[12]: P[4] of 29
        0.19919633623825483,  // c[13]: Q[4] of 29
        0.26862162181749166,  // c[14]: P[5] of 29
        0.27532091814028564,  // c[15]: -Q[5] of 29
        0.35927022128602587,  // c[16]: Q[6] of 29
        0.13741940099767344,  // c[17]: P[6] of 29
        0.3777140697119294,  // c[18]: Q[7] of 29
        0.07274108340629196,  // c[19]: -P[7] of 29
        0.21267702351981235,  // c[20]: Q[8] of 29
        0.3205115713047231,  // c[21]: -P[8] of 29
        0.035220206650882144,  // c[22]: P[9] of 29
        0.38303879792644835,  // c[23]: -Q[9] of 29
        0.37569917287106036,  // c[24]: P[10] of 29
        0.0825185747421179,  // c[25]: -Q[10] of 29
        0.25511870438911255,  // c[26]: -P[11] of 29
        0.28787780453569184,  // c[27]: -Q[11] of 29
        0.0870482765930398,  // c[28]: P[12] of 29
        0.37467556794599116,  // c[29]: Q[12] of 29
        0.0999373031094614,  // c[30]: -P[13] of 29
        0.3714454456857387,  // c[31]: Q[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x16_18 = io.in(16, 18);
        const P x20_8 = io.in(20, 8);
        // real block of 7, multiplier 4
        const P t0 = x16_18 + x20_8;
        const P t1 = x16_18 - x20_8;
        const P x23_15 = io.in(23, 15);
        const P x24_27 = io.in(24, 27);
        const P t2 = x23_15 + x24_27;
        const P t3 = x23_15 - x24_27;
        const P x7_10 = io.in(7, 10);
        const P x25_26 = io.in(25, 26);
        const P t4 = x7_10 + x25_26;
        const P t5 = shuffled<0, 3>(x25_26, x7_10);
        const P t6 = shuffled<0, 3>(x7_10, x25_26);
        const P t7 = t5 - t6;
        const P t8 = t0 + t2;
        const P t9 = t8 + t4;
        const P x1_12 = io.in(1, 12);
        const P t10 = t9 + x1_12;
        const P t11 = c[0] * t0;
        const P t12 = x1_12 - t11;
        const P t13 = c[1] * t2;
        const P t14 = t12 + t13;
        const P t15 = c[2] * t4;
        const P t16 = t14 - t15;
        const P t17 = c[3] * t1;
        const P t18 = c[4] * t3;
        const P t19 = t17 + t18;
        const P t20 = c[5] * t7;
        const P t21 = t19 - t20;
        const P t22 = c[1] * t0;
        const P t23 = c[2] * t2;
        const P t24 = t22 - t23;
        const P t25 = c[0] * t4;
        const P t26 = t24 - t25;
        const P t27 = t26 + x1_12;
        const P t28 = c[5] * t3;
        const P t29 = c[3] * t7;
        const P t30 = t28 + t29;
        const P t31 = c[4] * t1;
        const P t32 = t30 - t31;
        const P t33 = c[2] * t0;
        const P t34 = x1_12 - t33;
        const P t35 = c[0] * t2;
        const P t36 = t34 - t35;
        const P t37 = c[1] * t4;
        const P t38 = t36 + t37;
        const P t39 = c[5] * t1;
        const P t40 = c[3] * t3;
        const P t41 = t39 + t40;
        const P t42 = c[4] * t7;
        const P t43 = t41 + t42;
        const P x13_11 = io.in(13, 11);
        const P x9_21 = io.in(9, 21);
        // real block of 7, multiplier 4
        const P t44 = x13_11 + x9_21;
        const P t45 = x13_11 - x9_21;
        const P x6_14 = io.in(6, 14);
        const P x5_2 = io.in(5, 2);
        const P t46 = x6_14 + x5_2;
        const P t47 = x6_14 - x5_2;
        const P x4_19 = io.in(4, 19);
        const P x22_3 = io.in(22, 3);
        const P t48 = x4_19 + x22_3;
        const P t49 = x4_19 - x22_3;
        const P t50 = t44 + t46;
        const P t51 = t50 + t48;
        const P x28_17 = io.in(28, 17);
        const P t52 = t51 + x28_17;
        const P t53 = c[0] * t44;
        const P t54 = x28_17 - t53;
        const P t55 = c[1] * t46;
        const P t56 = t54 + t55;
        const P t57 = c[2] * t48;
        const P t58 = t56 - t57;
        const P t59 = c[3] * t45;
        const P t60 = c[4] * t47;
        const P t61 = t59 + t60;
        const P t62 = c[5] * t49;
        const P t63 = t61 - t62;
        const P t64 = c[1] * t44;
        const P t65 = c[2] * t46;
        const P t66 = t64 - t65;
        const P t67 = c[0] * t48;
        const P t68 = t66 - t67;
        const P t69 = t68 + x28_17;
        const P t70 = c[5] * t47;
        const P t71 = c[3] * t49;
        const P t72 = t70 + t71;
        const P t73 = c[4] * t45;
        const P t74 = t72 - t73;
        const P t75 = c[2] * t44;
        const P t76 = x28_17 - t75;
        const P t77 = c[0] * t46;
        const P t78 = t76 - t77;
        const P t79 = c[1] * t48;
        const P t80 = t78 + t79;
        const P t81 = c[5] * t45;
        const P t82 = c[3] * t47;
        const P t83 = t81 + t82;
        const P t84 = c[4] * t49;
        const P t85 = t83 + t84;
        // real block of 2
        const P t86 = t10 + t52;
        const P t87 = t10 - t52;
        const V t88 = part<0>(t86);
        const V t89 = part<1>(t86);
        // real block of 2
        const V t90 = t88 + t89;
        const V t91 = t88 - t89;
        const P t92 = shuffled<0, 2>(t16, t21);
        const P t93 = shuffled<0, 2>(t58, t63);
        // complex block of 2
        const P t94 = t92 + t93;
        const P t95 = t92 - t93;
        const P t96 = shuffled<1, 3>(t16, t21);
        const P t97 = shuffled<1, 3>(t58, t63);
        // complex block of 2
        const P t98 = t96 + t97;
        const P t99 = t96 - t97;
        // complex block of 2
        const P t100 = t94 + t98;
        const P t101 = t94 - t98;
        const P t102 = shuffled<1, 0>(t99);
        const P t103 = flipped<1, 0>(t102);
        // complex block of 2
        const P t104 = t95 + t103;
        const P t105 = t95 - t103;
        const P t106 = shuffled<0, 2>(t27, t32);
        const P t107 = shuffled<0, 2>(t69, t74);
        // complex block of 2
        const P t108 = t106 + t107;
        const P t109 = t106 - t107;
        const P t110 = shuffled<1, 3>(t27, t32);
        const P t111 = shuffled<1, 3>(t69, t74);
        // complex block of 2
        const P t112 = t110 + t111;
        const P t113 = t110 - t111;
        // complex block of 2
        const P t114 = t108 + t112;
        const P t115 = t108 - t112;
        const P t116 = shuffled<1, 0>(t113);
        const P t117 = flipped<1, 0>(t116);
        // complex block of 2
        const P t118 = t109 + t117;
        const P t119 = t109 - t117;
        const P t120 = shuffled<0, 2>(t38, t43);
        const P t121 = shuffled<0, 2>(t80, t85);
        // complex block of 2
        const P t122 = t120 + t121;
        const P t123 = t120 - t121;
        const P t124 = shuffled<1, 3>(t38, t43);
        const P t125 = shuffled<1, 3>(t80, t85);
        // complex block of 2
        const P t126 = t124 + t125;
        const P t127 = t124 - t125;
        // complex block of 2
        const P t128 = t122 + t126;
        const P t129 = t122 - t126;
        const P t130 = shuffled<1, 0>(t127);
        const P t131 = flipped<1, 0>(t130);
        // complex block of 2
        const P t132 = t123 + t131;
        const P t133 = t123 - t131;
        const V x0 = io.in(0);
        // real block of 29
        const V t134 = x0 + t90;
        io.out(0, t134);
        const V t135 = c[32] * t90;
        const V t136 = x0 - t135;
        const P t137 = c[6] * t119;
        const P t138 = shuffled<1, 0>(t119);
        const P t139 = P(c[7], -c[7]) * t138;
        const P t140 = t137 + t139;
        const P t141 = shuffled<1, 0>(t129);
        const P t142 = c[8] * t141;
        const P t143 = P(c[9], -c[9]) * t129;
        const P t144 = t142 + t143;
        const P t145 = shuffled<1, 0>(t105);
        const P t146 = c[10] * t145;
        const P t147 = P(c[11], -c[11]) * t105;
        const P t148 = t146 + t147;
        const P t149 = c[12] * t100;
        const P t150 = shuffled<1, 0>(t100);
        const P t151 = P(-c[13], c[13]) * t150;
        const P t152 = t149 + t151;
        const P t153 = c[14] * t133;
        const P t154 = shuffled<1, 0>(t133);
        const P t155 = P(c[15], -c[15]) * t154;
        const P t156 = t153 + t155;
        const P t157 = shuffled<1, 0>(t115);
        const P t158 = c[16] * t157;
        const P t159 = P(c[17], -c[17]) * t115;
        const P t160 = t158 + t159;
        const P t161 = shuffled<1, 0>(t87);
        const P t162 = c[18] * t161;
        const P t163 = P(c[19], -c[19]) * t87;
        const P t164 = t162 + t163;
        const P t165 = shuffled<1, 0>(t114);
        const P t166 = c[20] * t165;
        const P t167 = P(c[21], -c[21]) * t114;
        const P t168 = t166 + t167;
        const P t169 = c[22] * t132;
        const P t170 = shuffled<1, 0>(t132);
        const P t171 = P(-c[23], c[23]) * t170;
        const P t172 = t169 + t171;
        const P t173 = c[24] * t101;
        const P t174 = shuffled<1, 0>(t101);
        const P t175 = P(-c[25], c[25]) * t174;
        const P t176 = t173 + t175;
        const P t177 = P(-c[26], c[26]) * t104;
        const P t178 = shuffled<1, 0>(t104);
        const P t179 = c[27] * t178;
        const P t180 = t177 + t179;
        const P t181 = c[28] * t128;
        const P t182 = shuffled<1, 0>(t128);
        const P t183 = P(-c[29], c[29]) * t182;
        const P t184 = t181 + t183;
        const P t185 = P(-c[30], c[30]) * t118;
        const P t186 = shuffled<1, 0>(t118);
        const P t187 = c[31] * t186;
        const P t188 = t185 + t187;
        const V t189 = c[33] * t91;
        // spectrum block of 2
        const V t190 = t136 + t189;
        const V t191 = t136 - t189;
        // complex block of 2
        const P t192 = t152 + t176;
        const P t193 = t152 - t176;
        const P t194 = shuffled<0, 3>(t160, t168);
        const P t195 = shuffled<0, 3>(t168, t160);
        // complex block of 2
        const P t196 = t194 - t195;
        const P t197 = t168 + t160;
        const P t198 = flipped<0, 1>(t144);
        // complex block of 2
        const P t199 = t184 + t198;
        const P t200 = t184 - t198;
        const P t201 = shuffled<0, 2>(t192, t193);
        const P t202 = shuffled<0, 2>(t196, t197);
        const P t203 = flipped<0, 1>(t202);
        // spectrum block of 7, multiplier 2
        const P t204 = t201 + t203;
        const P t205 = shuffled<0, 2>(t199, t200);
        const P t206 = t204 + t205;
        const P t207 = joined(t190, t191);
        const P t208 = t206 + t207;
        const P t209 = c[1] * t201;
        const P t210 = P(-c[2], c[2]) * t202;
        const P t211 = t209 + t210;
        const P t212 = c[0] * t205;
        const P t213 = t211 - t212;
        const P t214 = t213 + t207;
        const P t215 = shuffled<1, 3>(t192, t193);
        const P t216 = c[4] * t215;
        const P t217 = shuffled<1, 3>(t196, t197);
        const P t218 = c[5] * t217;
        const P t219 = t216 + t218;
        const P t220 = shuffled<1, 3>(t199, t200);
        const P t221 = c[3] * t220;
        const P t222 = t219 + t221;
        const P t223 = t214 - t222;
        const P t224 = t214 + t222;
        const P t225 = c[2] * t201;
        const P t226 = t207 - t225;
        const P t227 = P(-c[0], c[0]) * t202;
        const P t228 = t226 + t227;
        const P t229 = c[1] * t205;
        const P t230 = t228 + t229;
        const P t231 = c[5] * t215;
        const P t232 = c[3] * t217;
        const P t233 = t231 - t232;
        const P t234 = c[4] * t220;
        const P t235 = t233 - t234;
        const P t236 = t230 - t235;
        const P t237 = t230 + t235;
        const P t238 = c[0] * t201;
        const P t239 = t207 - t238;
        const P t240 = P(c[1], -c[1]) * t202;
        const P t241 = t239 + t240;
        const P t242 = c[2] * t205;
        const P t243 = t241 - t242;
        const P t244 = c[3] * t215;
        const P t245 = c[4] * t217;
        const P t246 = t244 - t245;
        const P t247 = c[5] * t220;
        const P t248 = t246 + t247;
        const P t249 = t243 - t248;
        const P t250 = t243 + t248;
        const P t251 = shuffled<1, 2>(t140, t188);
        const P t252 = shuffled<1, 2>(t188, t140);
        const P t253 = flipped<0, 1>(t252);
        // complex block of 2
        const P t254 = t251 + t253;
        const P t255 = t251 - t253;
        const P t256 = shuffled<1, 0>(t255);
        // mirrored skew block of 14
        const P t257 = c[2] * t256;
        const P t258 = P(c[5], -c[5]) * t255;
        const P t259 = t257 + t258;
        const P t260 = shuffled<1, 2>(t148, t180);
        const P t261 = shuffled<1, 2>(t180, t148);
        // complex block of 2
        const P t262 = t260 - t261;
        const P t263 = t261 + t260;
        const P t264 = shuffled<1, 0>(t263);
        // mirrored skew block of 14
        const P t265 = c[1] * t264;
        const P t266 = P(c[4], -c[4]) * t263;
        const P t267 = t265 + t266;
        const P t268 = shuffled<1, 2>(t156, t172);
        const P t269 = shuffled<1, 2>(t172, t156);
        // complex block of 2
        const P t270 = t268 - t269;
        const P t271 = t269 + t268;
        const P t272 = shuffled<1, 0>(t271);
        // mirrored skew block of 14
        const P t273 = c[0] * t272;
        const P t274 = P(c[3], -c[3]) * t271;
        const P t275 = t273 + t274;
        const P t276 = shuffled<0, 2>(t270, t275);
        const P t277 = shuffled<0, 2>(t262, t267);
        // spectrum block of 7, multiplier 2
        const P t278 = t276 + t277;
        const P t279 = shuffled<0, 2>(t254, t259);
        const P t280 = t278 + t279;
        const P t281 = shuffled<1, 0>(t164);
        const P t282 = flipped<0, 1>(t281);
        const P t283 = t280 + t282;
        const P t284 = c[1] * t276;
        const P t285 = c[2] * t277;
        const P t286 = t284 - t285;
        const P t287 = c[0] * t279;
        const P t288 = t286 - t287;
        const P t289 = t288 + t282;
        const P t290 = shuffled<1, 3>(t270, t275);
        const P t291 = c[4] * t290;
        const P t292 = shuffled<1, 3>(t262, t267);
        const P t293 = c[5] * t292;
        const P t294 = t291 + t293;
        const P t295 = shuffled<1, 3>(t254, t259);
        const P t296 = c[3] * t295;
        const P t297 = t294 + t296;
        const P t298 = t289 + t297;
        const P t299 = t289 - t297;
        const P t300 = P(-c[2], c[2]) * t276;
        const P t301 = t281 + t300;
        const P t302 = P(-c[0], c[0]) * t277;
        const P t303 = t301 + t302;
        const P t304 = c[1] * t279;
        const P t305 = flipped<0, 1>(t303);
        const P t306 = t304 + t305;
        const P t307 = c[3] * t292;
        const P t308 = c[5] * t290;
        const P t309 = t307 - t308;
        const P t310 = c[4] * t295;
        const P t311 = t309 + t310;
        const P t312 = t306 - t311;
        const P t313 = t306 + t311;
        const P t314 = P(-c[0], c[0]) * t276;
        const P t315 = t281 + t314;
        const P t316 = c[1] * t277;
        const P t317 = flipped<0, 1>(t315);
        const P t318 = t316 + t317;
        const P t319 = c[2] * t279;
        const P t320 = t318 - t319;
        const P t321 = c[4] * t292;
        const P t322 = c[3] * t290;
        const P t323 = t321 - t322;
        const P t324 = c[5] * t295;
        const P t325 = t323 - t324;
        const P t326 = t320 - t325;
        const P t327 = t320 + t325;
        const V t328 = part<0>(t208);
        const V t329 = part<0>(t283);
        // output stage
        const V t330 = t328 - t329;
        io.out(1, t330);
        const V t331 = t328 + t329;
        io.out(28, t331);
        const V t332 = part<1>(t224);
        const V t333 = part<1>(t299);
        const V t334 = t332 + t333;
        io.out(2, t334);
        const V t335 = t332 - t333;
        io.out(27, t335);
        const V t336 = part<1>(t236);
        const V t337 = part<1>(t327);
        const V t338 = t336 + t337;
        io.out(3, t338);
        const V t339 = t336 - t337;
        io.out(26, t339);
        const V t340 = part<0>(t237);
        const V t341 = part<0>(t299);
        const V t342 = t340 + t341;
        io.out(4, t342);
        const V t343 = t340 - t341;
        io.out(25, t343);
        const V t344 = part<0>(t224);
        const V t345 = part<0>(t326);
        const V t346 = t344 + t345;
        io.out(5, t346);
        const V t347 = t344 - t345;
        io.out(24, t347);
        const V t348 = part<0>(t223);
        const V t349 = part<0>(t327);
        const V t350 = t348 + t349;
        io.out(6, t350);
        const V t351 = t348 - t349;
        io.out(23, t351);
        const V t352 = part<0>(t236);
        const V t353 = part<0>(t298);
        const V t354 = t352 - t353;
        io.out(7, t354);
        const V t355 = t352 + t353;
        io.out(22, t355);
        const V t356 = part<1>(t250);
        const V t357 = part<1>(t313);
        const V t358 = t356 - t357;
        io.out(8, t358);
        const V t359 = t356 + t357;
        io.out(21, t359);
        const V t360 = part<0>(t250);
        const V t361 = part<0>(t312);
        const V t362 = t360 + t361;
        io.out(9, t362);
        const V t363 = t360 - t361;
        io.out(20, t363);
        const V t364 = part<1>(t237);
        const V t365 = part<1>(t312);
        const V t366 = t364 - t365;
        io.out(10, t366);
        const V t367 = t364 + t365;
        io.out(19, t367);
        const V t368 = part<1>(t249);
        const V t369 = part<1>(t298);
        const V t370 = t368 + t369;
        io.out(11, t370);
        const V t371 = t368 - t369;
        io.out(18, t371);
        const V t372 = part<1>(t208);
        const V t373 = part<1>(t326);
        const V t374 = t372 - t373;
        io.out(12, t374);
        const V t375 = t372 + t373;
        io.out(17, t375);
        const V t376 = part<0>(t249);
        const V t377 = part<0>(t313);
        const V t378 = t376 + t377;
        io.out(13, t378);
        const V t379 = t376 - t377;
        io.out(16, t379);
        const V t380 = part<1>(t223);
        const V t381 = part<1>(t283);
        const V t382 = t380 + t381;
        io.out(14, t382);
        const V t383 = t380 - t381;
        io.out(15, t383);
    }
};

}  // namespace zulg
