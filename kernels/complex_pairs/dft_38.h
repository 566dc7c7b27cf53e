// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 38.
// Complex DFT of 38 points, prime-factor, order 19, 2; one complex number to a register.
// 215 sums, 187 differences, 220 products of registers, which do the 1320 steps of the graph, those with
// `scale` included; 18 shuffles, 18 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<38> {
    static constexpr int steps = 1320;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.25181241707905544,  // c[6]: -P[1] of 19
        0.4137129534343489,  // c[7]: Q[1] of 19
        0.4798788450919296,  // c[8]: P[2] of 19
        0.06545376435166843,  // c[9]: Q[2] of 19
        0.3937592850674352,  // c[10]: Q[3] of 19
        0.28199561460730244,  // c[11]: P[3] of 19
        0.37568683358927524,  // c[12]: P[4] of 19
        0.3056588037374879,  // c[13]: -Q[4] of 19
        0.24188723407956064,  // c[14]: -Q[5] of 19
        0.4195932163702218,  // c[15]: P[5] of 19
        0.47339199623771827,  // c[16]: P[6] of 19
        0.10231284930367265,  // c[17]: -Q[6] of 19
        0.3873109834397322,  // c[18]: -P[7] of 19
        0.2907887606863707,  // c[19]: Q[7] of 19
        0.007654694426448971,  // c[20]: -Q[8] of 19
        0.4842616099669739,  // c[21]: -P[8] of 19
        0.1503837331804353,  // c[22]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[23]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[24]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[25]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: -beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x2 = io.pair(2);
        const P x36 = io.pair(36);
        // real block of 2
        const P t0 = x2 + x36;
        const P t1 = x2 - x36;
        const P x8 = io.pair(8);
        const P x30 = io.pair(30);
        // real block of 2
        const P t2 = x8 + x30;
        const P t3 = x8 - x30;
        const P x32 = io.pair(32);
        const P x6 = io.pair(6);
        // real block of 2
        const P t4 = x32 + x6;
        const P t5 = x32 - x6;
        const P x14 = io.pair(14);
        const P x24 = io.pair(24);
        // real block of 2
        const P t6 = x14 + x24;
        const P t7 = x14 - x24;
        const P x18 = io.pair(18);
        const P x20 = io.pair(20);
        // real block of 2
        const P t8 = x18 + x20;
        const P t9 = x18 - x20;
        const P x34 = io.pair(34);
        const P x4 = io.pair(4);
        // real block of 2
        const P t10 = x34 + x4;
        const P t11 = x34 - x4;
        const P x22 = io.pair(22);
        const P x16 = io.pair(16);
        // real block of 2
        const P t12 = x22 + x16;
        const P t13 = x22 - x16;
        const P x12 = io.pair(12);
        const P x26 = io.pair(26);
        // real block of 2
        const P t14 = x12 + x26;
        const P t15 = x12 - x26;
        const P x10 = io.pair(10);
        const P x28 = io.pair(28);
        // real block of 2
        const P t16 = x10 + x28;
        const P t17 = x10 - x28;
        // real block of 3, multiplier 2
        const P t18 = t6 + t12;
        const P t19 = t6 - t12;
        const P t20 = t18 + t0;
        const P t21 = c[0] * t18;
        const P t22 = t0 - t21;
        // real block of 3, multiplier 2
        const P t23 = t8 + t14;
        const P t24 = t8 - t14;
        const P t25 = t23 + t2;
        const P t26 = c[0] * t23;
        const P t27 = t2 - t26;
        // real block of 3, multiplier 2
        const P t28 = t10 + t16;
        const P t29 = t10 - t16;
        const P t30 = t28 + t4;
        const P t31 = c[0] * t28;
        const P t32 = t4 - t31;
        // real block of 3, multiplier 2
        const P t33 = t25 + t30;
        const P t34 = t25 - t30;
        const P t35 = t33 + t20;
        const P t36 = c[0] * t33;
        const P t37 = t20 - t36;
        // real block of 9, multiplier 2
        const P t38 = c[2] * t27;
        // real block of 3, multiplier 2
        const P t39 = c[1] * t24;
        // real block of 9, multiplier 2
        const P t40 = c[3] * t39;
        const P t41 = t38 + t40;
        const P t42 = c[2] * t39;
        const P t43 = c[3] * t27;
        const P t44 = t42 - t43;
        // real block of 3, multiplier 2
        const P t45 = c[1] * t29;
        // real block of 9, multiplier 2
        const P t46 = c[4] * t45;
        const P t47 = c[5] * t32;
        const P t48 = t46 - t47;
        const P t49 = c[5] * t45;
        const P t50 = c[4] * t32;
        const P t51 = t49 + t50;
        // complex block of 3, multiplier 2
        const P t52 = t41 + t48;
        const P t53 = t44 - t51;
        const P t54 = t41 - t48;
        const P t55 = t44 + t51;
        const P t56 = t52 + t22;
        // real block of 3, multiplier 2
        const P t57 = c[1] * t19;
        // complex block of 3, multiplier 2
        const P t58 = t53 + t57;
        const P t59 = c[0] * t52;
        const P t60 = t22 - t59;
        const P t61 = c[0] * t53;
        const P t62 = t57 - t61;
        const P t63 = c[1] * t55;
        const P t64 = t60 + t63;
        const P t65 = c[1] * t54;
        const P t66 = t62 - t65;
        const P t67 = t60 - t63;
        const P t68 = t62 + t65;
        // real block of 3, multiplier 2
        const P t69 = t7 + t13;
        const P t70 = t7 - t13;
        const P t71 = t69 + t1;
        const P t72 = c[0] * t69;
        const P t73 = t1 - t72;
        // real block of 3, multiplier 2
        const P t74 = t9 + t15;
        const P t75 = t9 - t15;
        const P t76 = t74 + t3;
        const P t77 = c[0] * t74;
        const P t78 = t3 - t77;
        // real block of 3, multiplier 2
        const P t79 = t11 + t17;
        const P t80 = t11 - t17;
        const P t81 = t79 + t5;
        const P t82 = c[0] * t79;
        const P t83 = t5 - t82;
        // real block of 3, multiplier 2
        const P t84 = t76 + t81;
        const P t85 = t76 - t81;
        const P t86 = t84 + t71;
        const P t87 = c[0] * t84;
        const P t88 = t71 - t87;
        // real block of 9, multiplier 2
        const P t89 = c[2] * t78;
        // real block of 3, multiplier 2
        const P t90 = c[1] * t75;
        // real block of 9, multiplier 2
        const P t91 = c[3] * t90;
        const P t92 = t89 + t91;
        const P t93 = c[2] * t90;
        const P t94 = c[3] * t78;
        const P t95 = t93 - t94;
        // real block of 3, multiplier 2
        const P t96 = c[1] * t80;
        // real block of 9, multiplier 2
        const P t97 = c[4] * t96;
        const P t98 = c[5] * t83;
        const P t99 = t97 - t98;
        const P t100 = c[5] * t96;
        const P t101 = c[4] * t83;
        const P t102 = t100 + t101;
        // complex block of 3, multiplier 2
        const P t103 = t92 + t99;
        const P t104 = t95 - t102;
        const P t105 = t92 - t99;
        const P t106 = t95 + t102;
        const P t107 = t103 + t73;
        // real block of 3, multiplier 2
        const P t108 = c[1] * t70;
        // complex block of 3, multiplier 2
        const P t109 = t104 + t108;
        const P t110 = c[0] * t103;
        const P t111 = t73 - t110;
        const P t112 = c[0] * t104;
        const P t113 = t108 - t112;
        const P t114 = c[1] * t106;
        const P t115 = t111 + t114;
        const P t116 = c[1] * t105;
        const P t117 = t113 - t116;
        const P t118 = t111 - t114;
        const P t119 = t113 + t116;
        const P x0 = io.pair(0);
        // complex block of 19, multiplier 2
        const P t120 = x0 + t35;
        const P t121 = c[26] * t35;
        const P t122 = x0 - t121;
        const P t123 = shuffled<1, 0>(t119);
        const P t124 = P(-c[6], c[6]) * t123;
        const P t125 = shuffled<1, 0>(t118);
        const P t126 = P(c[7], -c[7]) * t125;
        const P t127 = t124 + t126;
        const P t128 = c[7] * t123;
        const P t129 = c[6] * t125;
        const P t130 = t128 + t129;
        const P t131 = c[8] * t56;
        const P t132 = c[9] * t58;
        const P t133 = t131 - t132;
        const P t134 = c[8] * t58;
        const P t135 = c[9] * t56;
        const P t136 = t134 + t135;
        const P t137 = shuffled<1, 0>(t88);
        const P t138 = c[10] * t137;
        // real block of 3, multiplier 2
        const P t139 = c[1] * t85;
        const P t140 = shuffled<1, 0>(t139);
        // complex block of 19, multiplier 2
        const P t141 = c[11] * t140;
        const P t142 = t138 + t141;
        const P t143 = P(-c[10], c[10]) * t140;
        const P t144 = P(c[11], -c[11]) * t137;
        const P t145 = t143 + t144;
        const P t146 = c[12] * t64;
        const P t147 = c[13] * t66;
        const P t148 = t146 - t147;
        const P t149 = c[12] * t66;
        const P t150 = c[13] * t64;
        const P t151 = t149 + t150;
        const P t152 = shuffled<1, 0>(t115);
        const P t153 = c[14] * t152;
        const P t154 = shuffled<1, 0>(t117);
        const P t155 = c[15] * t154;
        const P t156 = t153 + t155;
        const P t157 = P(-c[14], c[14]) * t154;
        const P t158 = P(c[15], -c[15]) * t152;
        const P t159 = t157 + t158;
        const P t160 = c[16] * t37;
        // real block of 3, multiplier 2
        const P t161 = c[1] * t34;
        // complex block of 19, multiplier 2
        const P t162 = c[17] * t161;
        const P t163 = t160 + t162;
        const P t164 = c[16] * t161;
        const P t165 = c[17] * t37;
        const P t166 = t164 - t165;
        const P t167 = shuffled<1, 0>(t109);
        const P t168 = P(-c[18], c[18]) * t167;
        const P t169 = shuffled<1, 0>(t107);
        const P t170 = P(c[19], -c[19]) * t169;
        const P t171 = t168 + t170;
        const P t172 = c[19] * t167;
        const P t173 = c[18] * t169;
        const P t174 = t172 + t173;
        const P t175 = c[20] * t68;
        const P t176 = c[21] * t67;
        const P t177 = t175 - t176;
        const P t178 = c[21] * t68;
        const P t179 = c[20] * t67;
        const P t180 = t178 + t179;
        const P t181 = shuffled<1, 0>(t86);
        const P t182 = P(-c[27], c[27]) * t181;
        // spectrum block of 2
        const P t183 = t122 + t182;
        const P t184 = t122 - t182;
        const P t185 = flipped<0, 1>(t174);
        // complex block of 2
        const P t186 = t136 + t185;
        const P t187 = t133 + t171;
        const P t188 = t136 - t185;
        const P t189 = t133 - t171;
        // complex block of 2
        const P t190 = t151 + t159;
        const P t191 = flipped<1, 0>(t156);
        const P t192 = t148 + t191;
        const P t193 = t159 - t151;
        const P t194 = t148 - t191;
        // complex block of 2
        const P t195 = t166 - t145;
        const P t196 = flipped<0, 1>(t142);
        const P t197 = t163 + t196;
        const P t198 = t166 + t145;
        const P t199 = t163 - t196;
        const P t200 = flipped<1, 0>(t180);
        // complex block of 2
        const P t201 = t200 + t130;
        const P t202 = t177 + t127;
        const P t203 = t130 - t200;
        const P t204 = t177 - t127;
        // spectrum block of 3, multiplier 2
        const P t205 = t197 + t183;
        const P t206 = c[0] * t197;
        const P t207 = t183 - t206;
        const P t208 = c[1] * t195;
        const P t209 = t207 - t208;
        const P t210 = t207 + t208;
        const P t211 = flipped<0, 1>(t201);
        // complex block of 3, multiplier 2
        const P t212 = t190 + t211;
        const P t213 = t202 + t192;
        const P t214 = flipped<1, 0>(t190);
        const P t215 = t201 + t214;
        const P t216 = t202 - t192;
        const P t217 = t212 + t186;
        const P t218 = t213 + t187;
        const P t219 = c[0] * t212;
        const P t220 = t186 - t219;
        const P t221 = c[0] * t213;
        const P t222 = t187 - t221;
        const P t223 = c[1] * t216;
        const P t224 = t220 + t223;
        const P t225 = P(-c[1], c[1]) * t215;
        const P t226 = t222 + t225;
        const P t227 = t220 - t223;
        const P t228 = t222 - t225;
        // spectrum block of 9, multiplier 2
        const P t229 = c[2] * t228;
        const P t230 = c[3] * t227;
        const P t231 = t229 - t230;
        const P t232 = c[5] * t226;
        const P t233 = c[4] * t224;
        const P t234 = t232 + t233;
        // spectrum block of 3, multiplier 2
        const P t235 = t218 + t205;
        const P t236 = c[0] * t218;
        const P t237 = t205 - t236;
        const P t238 = c[1] * t217;
        const P t239 = t237 - t238;
        const P t240 = t237 + t238;
        // spectrum block of 3, multiplier 2
        const P t241 = t231 + t210;
        const P t242 = c[0] * t231;
        const P t243 = t210 - t242;
        const P t244 = c[22] * t227;
        const P t245 = c[23] * t228;
        const P t246 = t244 + t245;
        const P t247 = t243 - t246;
        const P t248 = t243 + t246;
        // spectrum block of 3, multiplier 2
        const P t249 = t209 - t234;
        const P t250 = c[0] * t234;
        const P t251 = t250 + t209;
        const P t252 = c[24] * t226;
        const P t253 = c[25] * t224;
        const P t254 = t252 - t253;
        const P t255 = t251 - t254;
        const P t256 = t251 + t254;
        // spectrum block of 3, multiplier 2
        const P t257 = t199 + t184;
        const P t258 = c[0] * t199;
        const P t259 = t184 - t258;
        const P t260 = c[1] * t198;
        const P t261 = t259 - t260;
        const P t262 = t259 + t260;
        const P t263 = flipped<0, 1>(t193);
        // complex block of 3, multiplier 2
        const P t264 = t203 + t263;
        const P t265 = t204 + t194;
        const P t266 = flipped<1, 0>(t203);
        const P t267 = t266 + t193;
        const P t268 = t204 - t194;
        const P t269 = flipped<1, 0>(t264);
        const P t270 = t269 + t188;
        const P t271 = t265 + t189;
        const P t272 = P(c[0], -c[0]) * t264;
        const P t273 = t188 + t272;
        const P t274 = c[0] * t265;
        const P t275 = t189 - t274;
        const P t276 = c[1] * t268;
        const P t277 = t273 + t276;
        const P t278 = c[1] * t267;
        const P t279 = t275 - t278;
        const P t280 = t273 - t276;
        const P t281 = t275 + t278;
        // spectrum block of 9, multiplier 2
        const P t282 = c[2] * t281;
        const P t283 = c[3] * t280;
        const P t284 = t282 - t283;
        const P t285 = c[5] * t279;
        const P t286 = c[4] * t277;
        const P t287 = t285 + t286;
        // spectrum block of 3, multiplier 2
        const P t288 = t271 + t257;
        const P t289 = c[0] * t271;
        const P t290 = t257 - t289;
        const P t291 = c[1] * t270;
        const P t292 = t290 - t291;
        const P t293 = t290 + t291;
        // spectrum block of 3, multiplier 2
        const P t294 = t284 + t262;
        const P t295 = c[0] * t284;
        const P t296 = t262 - t295;
        const P t297 = c[22] * t280;
        const P t298 = c[23] * t281;
        const P t299 = t297 + t298;
        const P t300 = t296 - t299;
        const P t301 = t296 + t299;
        // spectrum block of 3, multiplier 2
        const P t302 = t261 - t287;
        const P t303 = c[0] * t287;
        const P t304 = t303 + t261;
        const P t305 = c[24] * t279;
        const P t306 = c[25] * t277;
        const P t307 = t305 - t306;
        const P t308 = t304 - t307;
        const P t309 = t304 + t307;
        const P x21 = io.pair(21);
        const P x17 = io.pair(17);
        // real block of 2
        const P t310 = x21 + x17;
        const P t311 = x21 - x17;
        const P x27 = io.pair(27);
        const P x11 = io.pair(11);
        // real block of 2
        const P t312 = x27 + x11;
        const P t313 = x27 - x11;
        const P x13 = io.pair(13);
        const P x25 = io.pair(25);
        // real block of 2
        const P t314 = x13 + x25;
        const P t315 = x13 - x25;
        const P x33 = io.pair(33);
        const P x5 = io.pair(5);
        // real block of 2
        const P t316 = x33 + x5;
        const P t317 = x33 - x5;
        const P x37 = io.pair(37);
        const P x1 = io.pair(1);
        // real block of 2
        const P t318 = x37 + x1;
        const P t319 = x37 - x1;
        const P x15 = io.pair(15);
        const P x23 = io.pair(23);
        // real block of 2
        const P t320 = x15 + x23;
        const P t321 = x15 - x23;
        const P x3 = io.pair(3);
        const P x35 = io.pair(35);
        // real block of 2
        const P t322 = x3 + x35;
        const P t323 = x3 - x35;
        const P x31 = io.pair(31);
        const P x7 = io.pair(7);
        // real block of 2
        const P t324 = x31 + x7;
        const P t325 = x31 - x7;
        const P x29 = io.pair(29);
        const P x9 = io.pair(9);
        // real block of 2
        const P t326 = x29 + x9;
        const P t327 = x29 - x9;
        // real block of 3, multiplier 2
        const P t328 = t316 + t322;
        const P t329 = t316 - t322;
        const P t330 = t328 + t310;
        const P t331 = c[0] * t328;
        const P t332 = t310 - t331;
        // real block of 3, multiplier 2
        const P t333 = t318 + t324;
        const P t334 = t318 - t324;
        const P t335 = t333 + t312;
        const P t336 = c[0] * t333;
        const P t337 = t312 - t336;
        // real block of 3, multiplier 2
        const P t338 = t320 + t326;
        const P t339 = t320 - t326;
        const P t340 = t338 + t314;
        const P t341 = c[0] * t338;
        const P t342 = t314 - t341;
        // real block of 3, multiplier 2
        const P t343 = t335 + t340;
        const P t344 = t335 - t340;
        const P t345 = t343 + t330;
        const P t346 = c[0] * t343;
        const P t347 = t330 - t346;
        // real block of 9, multiplier 2
        const P t348 = c[2] * t337;
        // real block of 3, multiplier 2
        const P t349 = c[1] * t334;
        // real block of 9, multiplier 2
        const P t350 = c[3] * t349;
        const P t351 = t348 + t350;
        const P t352 = c[2] * t349;
        const P t353 = c[3] * t337;
        const P t354 = t352 - t353;
        // real block of 3, multiplier 2
        const P t355 = c[1] * t339;
        // real block of 9, multiplier 2
        const P t356 = c[4] * t355;
        const P t357 = c[5] * t342;
        const P t358 = t356 - t357;
        const P t359 = c[5] * t355;
        const P t360 = c[4] * t342;
        const P t361 = t359 + t360;
        // complex block of 3, multiplier 2
        const P t362 = t351 + t358;
        const P t363 = t354 - t361;
        const P t364 = t351 - t358;
        const P t365 = t354 + t361;
        const P t366 = t362 + t332;
        // real block of 3, multiplier 2
        const P t367 = c[1] * t329;
        // complex block of 3, multiplier 2
        const P t368 = t363 + t367;
        const P t369 = c[0] * t362;
        const P t370 = t332 - t369;
        const P t371 = c[0] * t363;
        const P t372 = t367 - t371;
        const P t373 = c[1] * t365;
        const P t374 = t370 + t373;
        const P t375 = c[1] * t364;
        const P t376 = t372 - t375;
        const P t377 = t370 - t373;
        const P t378 = t372 + t375;
        // real block of 3, multiplier 2
        const P t379 = t317 + t323;
        const P t380 = t317 - t323;
        const P t381 = t379 + t311;
        const P t382 = c[0] * t379;
        const P t383 = t311 - t382;
        // real block of 3, multiplier 2
        const P t384 = t319 + t325;
        const P t385 = t319 - t325;
        const P t386 = t384 + t313;
        const P t387 = c[0] * t384;
        const P t388 = t313 - t387;
        // real block of 3, multiplier 2
        const P t389 = t321 + t327;
        const P t390 = t321 - t327;
        const P t391 = t389 + t315;
        const P t392 = c[0] * t389;
        const P t393 = t315 - t392;
        // real block of 3, multiplier 2
        const P t394 = t386 + t391;
        const P t395 = t386 - t391;
        const P t396 = t394 + t381;
        const P t397 = c[0] * t394;
        const P t398 = t381 - t397;
        // real block of 9, multiplier 2
        const P t399 = c[2] * t388;
        // real block of 3, multiplier 2
        const P t400 = c[1] * t385;
        // real block of 9, multiplier 2
        const P t401 = c[3] * t400;
        const P t402 = t399 + t401;
        const P t403 = c[2] * t400;
        const P t404 = c[3] * t388;
        const P t405 = t403 - t404;
        // real block of 3, multiplier 2
        const P t406 = c[1] * t390;
        // real block of 9, multiplier 2
        const P t407 = c[4] * t406;
        const P t408 = c[5] * t393;
        const P t409 = t407 - t408;
        const P t410 = c[5] * t406;
        const P t411 = c[4] * t393;
        const P t412 = t410 + t411;
        // complex block of 3, multiplier 2
        const P t413 = t402 + t409;
        const P t414 = t405 - t412;
        const P t415 = t402 - t409;
        const P t416 = t405 + t412;
        const P t417 = t413 + t383;
        // real block of 3, multiplier 2
        const P t418 = c[1] * t380;
        // complex block of 3, multiplier 2
        const P t419 = t414 + t418;
        const P t420 = c[0] * t413;
        const P t421 = t383 - t420;
        const P t422 = c[0] * t414;
        const P t423 = t418 - t422;
        const P t424 = c[1] * t416;
        const P t425 = t421 + t424;
        const P t426 = c[1] * t415;
        const P t427 = t423 - t426;
        const P t428 = t421 - t424;
        const P t429 = t423 + t426;
        const P x19 = io.pair(19);
        // complex block of 19, multiplier 2
        const P t430 = x19 + t345;
        const P t431 = c[26] * t345;
        const P t432 = x19 - t431;
        const P t433 = shuffled<1, 0>(t429);
        const P t434 = P(-c[6], c[6]) * t433;
        const P t435 = shuffled<1, 0>(t428);
        const P t436 = P(c[7], -c[7]) * t435;
        const P t437 = t434 + t436;
        const P t438 = c[7] * t433;
        const P t439 = c[6] * t435;
        const P t440 = t438 + t439;
        const P t441 = c[8] * t366;
        const P t442 = c[9] * t368;
        const P t443 = t441 - t442;
        const P t444 = c[8] * t368;
        const P t445 = c[9] * t366;
        const P t446 = t444 + t445;
        const P t447 = shuffled<1, 0>(t398);
        const P t448 = c[10] * t447;
        // real block of 3, multiplier 2
        const P t449 = c[1] * t395;
        const P t450 = shuffled<1, 0>(t449);
        // complex block of 19, multiplier 2
        const P t451 = c[11] * t450;
        const P t452 = t448 + t451;
        const P t453 = P(-c[10], c[10]) * t450;
        const P t454 = P(c[11], -c[11]) * t447;
        const P t455 = t453 + t454;
        const P t456 = c[12] * t374;
        const P t457 = c[13] * t376;
        const P t458 = t456 - t457;
        const P t459 = c[12] * t376;
        const P t460 = c[13] * t374;
        const P t461 = t459 + t460;
        const P t462 = shuffled<1, 0>(t425);
        const P t463 = c[14] * t462;
        const P t464 = shuffled<1, 0>(t427);
        const P t465 = c[15] * t464;
        const P t466 = t463 + t465;
        const P t467 = P(-c[14], c[14]) * t464;
        const P t468 = P(c[15], -c[15]) * t462;
        const P t469 = t467 + t468;
        const P t470 = c[16] * t347;
        // real block of 3, multiplier 2
        const P t471 = c[1] * t344;
        // complex block of 19, multiplier 2
        const P t472 = c[17] * t471;
        const P t473 = t470 + t472;
        const P t474 = c[16] * t471;
        const P t475 = c[17] * t347;
        const P t476 = t474 - t475;
        const P t477 = shuffled<1, 0>(t419);
        const P t478 = P(-c[18], c[18]) * t477;
        const P t479 = shuffled<1, 0>(t417);
        const P t480 = P(c[19], -c[19]) * t479;
        const P t481 = t478 + t480;
        const P t482 = c[19] * t477;
        const P t483 = c[18] * t479;
        const P t484 = t482 + t483;
        const P t485 = c[20] * t378;
        const P t486 = c[21] * t377;
        const P t487 = t485 - t486;
        const P t488 = c[21] * t378;
        const P t489 = c[20] * t377;
        const P t490 = t488 + t489;
        const P t491 = shuffled<1, 0>(t396);
        const P t492 = P(-c[27], c[27]) * t491;
        // spectrum block of 2
        const P t493 = t432 + t492;
        const P t494 = t432 - t492;
        const P t495 = flipped<0, 1>(t484);
        // complex block of 2
        const P t496 = t446 + t495;
        const P t497 = t443 + t481;
        const P t498 = t446 - t495;
        const P t499 = t443 - t481;
        // complex block of 2
        const P t500 = t461 + t469;
        const P t501 = flipped<1, 0>(t466);
        const P t502 = t458 + t501;
        const P t503 = t469 - t461;
        const P t504 = t458 - t501;
        // complex block of 2
        const P t505 = t476 - t455;
        const P t506 = flipped<0, 1>(t452);
        const P t507 = t473 + t506;
        const P t508 = t476 + t455;
        const P t509 = t473 - t506;
        const P t510 = flipped<1, 0>(t490);
        // complex block of 2
        const P t511 = t510 + t440;
        const P t512 = t487 + t437;
        const P t513 = t440 - t510;
        const P t514 = t487 - t437;
        // spectrum block of 3, multiplier 2
        const P t515 = t507 + t493;
        const P t516 = c[0] * t507;
        const P t517 = t493 - t516;
        const P t518 = c[1] * t505;
        const P t519 = t517 - t518;
        const P t520 = t517 + t518;
        const P t521 = flipped<0, 1>(t511);
        // complex block of 3, multiplier 2
        const P t522 = t500 + t521;
        const P t523 = t512 + t502;
        const P t524 = flipped<1, 0>(t500);
        const P t525 = t511 + t524;
        const P t526 = t512 - t502;
        const P t527 = t522 + t496;
        const P t528 = t523 + t497;
        const P t529 = c[0] * t522;
        const P t530 = t496 - t529;
        const P t531 = c[0] * t523;
        const P t532 = t497 - t531;
        const P t533 = c[1] * t526;
        const P t534 = t530 + t533;
        const P t535 = P(-c[1], c[1]) * t525;
        const P t536 = t532 + t535;
        const P t537 = t530 - t533;
        const P t538 = t532 - t535;
        // spectrum block of 9, multiplier 2
        const P t539 = c[2] * t538;
        const P t540 = c[3] * t537;
        const P t541 = t539 - t540;
        const P t542 = c[5] * t536;
        const P t543 = c[4] * t534;
        const P t544 = t542 + t543;
        // spectrum block of 3, multiplier 2
        const P t545 = t528 + t515;
        const P t546 = c[0] * t528;
        const P t547 = t515 - t546;
        const P t548 = c[1] * t527;
        const P t549 = t547 - t548;
        const P t550 = t547 + t548;
        // spectrum block of 3, multiplier 2
        const P t551 = t541 + t520;
        const P t552 = c[0] * t541;
        const P t553 = t520 - t552;
        const P t554 = c[22] * t537;
        const P t555 = c[23] * t538;
        const P t556 = t554 + t555;
        const P t557 = t553 - t556;
        const P t558 = t553 + t556;
        // spectrum block of 3, multiplier 2
        const P t559 = t519 - t544;
        const P t560 = c[0] * t544;
        const P t561 = t560 + t519;
        const P t562 = c[24] * t536;
        const P t563 = c[25] * t534;
        const P t564 = t562 - t563;
        const P t565 = t561 - t564;
        const P t566 = t561 + t564;
        // spectrum block of 3, multiplier 2
        const P t567 = t509 + t494;
        const P t568 = c[0] * t509;
        const P t569 = t494 - t568;
        const P t570 = c[1] * t508;
        const P t571 = t569 - t570;
        const P t572 = t569 + t570;
        const P t573 = flipped<0, 1>(t503);
        // complex block of 3, multiplier 2
        const P t574 = t513 + t573;
        const P t575 = t514 + t504;
        const P t576 = flipped<1, 0>(t513);
        const P t577 = t576 + t503;
        const P t578 = t514 - t504;
        const P t579 = flipped<1, 0>(t574);
        const P t580 = t579 + t498;
        const P t581 = t575 + t499;
        const P t582 = P(c[0], -c[0]) * t574;
        const P t583 = t498 + t582;
        const P t584 = c[0] * t575;
        const P t585 = t499 - t584;
        const P t586 = c[1] * t578;
        const P t587 = t583 + t586;
        const P t588 = c[1] * t577;
        const P t589 = t585 - t588;
        const P t590 = t583 - t586;
        const P t591 = t585 + t588;
        // spectrum block of 9, multiplier 2
        const P t592 = c[2] * t591;
        const P t593 = c[3] * t590;
        const P t594 = t592 - t593;
        const P t595 = c[5] * t589;
        const P t596 = c[4] * t587;
        const P t597 = t595 + t596;
        // spectrum block of 3, multiplier 2
        const P t598 = t581 + t567;
        const P t599 = c[0] * t581;
        const P t600 = t567 - t599;
        const P t601 = c[1] * t580;
        const P t602 = t600 - t601;
        const P t603 = t600 + t601;
        // spectrum block of 3, multiplier 2
        const P t604 = t594 + t572;
        const P t605 = c[0] * t594;
        const P t606 = t572 - t605;
        const P t607 = c[22] * t590;
        const P t608 = c[23] * t591;
        const P t609 = t607 + t608;
        const P t610 = t606 - t609;
        const P t611 = t606 + t609;
        // spectrum block of 3, multiplier 2
        const P t612 = t571 - t597;
        const P t613 = c[0] * t597;
        const P t614 = t613 + t571;
        const P t615 = c[24] * t589;
        const P t616 = c[25] * t587;
        const P t617 = t615 - t616;
        const P t618 = t614 - t617;
        const P t619 = t614 + t617;
        // complex block of 2
        const P t620 = t120 + t430;
        io.pair(0, t620);
        const P t621 = t120 - t430;
        io.pair(19, t621);
        // complex block of 2
        const P t622 = t235 + t545;
        io.pair(2, t622);
        const P t623 = t235 - t545;
        io.pair(21, t623);
        // complex block of 2
        const P t624 = t301 + t611;
        io.pair(4, t624);
        const P t625 = t301 - t611;
        io.pair(23, t625);
        // complex block of 2
        const P t626 = t300 + t610;
        io.pair(6, t626);
        const P t627 = t300 - t610;
        io.pair(25, t627);
        // complex block of 2
        const P t628 = t255 + t565;
        io.pair(8, t628);
        const P t629 = t255 - t565;
        io.pair(27, t629);
        // complex block of 2
        const P t630 = t241 + t551;
        io.pair(10, t630);
        const P t631 = t241 - t551;
        io.pair(29, t631);
        // complex block of 2
        const P t632 = t249 + t559;
        io.pair(12, t632);
        const P t633 = t249 - t559;
        io.pair(31, t633);
        // complex block of 2
        const P t634 = t239 + t549;
        io.pair(14, t634);
        const P t635 = t239 - t549;
        io.pair(33, t635);
        // complex block of 2
        const P t636 = t293 + t603;
        io.pair(16, t636);
        const P t637 = t293 - t603;
        io.pair(35, t637);
        // complex block of 2
        const P t638 = t256 + t566;
        io.pair(18, t638);
        const P t639 = t256 - t566;
        io.pair(37, t639);
        // complex block of 2
        const P t640 = t309 + t619;
        io.pair(20, t640);
        const P t641 = t309 - t619;
        io.pair(1, t641);
        // complex block of 2
        const P t642 = t240 + t550;
        io.pair(22, t642);
        const P t643 = t240 - t550;
        io.pair(3, t643);
        // complex block of 2
        const P t644 = t292 + t602;
        io.pair(24, t644);
        const P t645 = t292 - t602;
        io.pair(5, t645);
        // complex block of 2
        const P t646 = t302 + t612;
        io.pair(26, t646);
        const P t647 = t302 - t612;
        io.pair(7, t647);
        // complex block of 2
        const P t648 = t294 + t604;
        io.pair(28, t648);
        const P t649 = t294 - t604;
        io.pair(9, t649);
        // complex block of 2
        const P t650 = t308 + t618;
        io.pair(30, t650);
        const P t651 = t308 - t618;
        io.pair(11, t651);
        // complex block of 2
        const P t652 = t247 + t557;
        io.pair(32, t652);
        const P t653 = t247 - t557;
        io.pair(13, t653);
        // complex block of 2
        const P t654 = t248 + t558;
        io.pair(34, t654);
        const P t655 = t248 - t558;
        io.pair(15, t655);
        // complex block of 2
        const P t656 = t288 + t598;
        io.pair(36, t656);
        const P t657 = t288 - t598;
        io.pair(17, t657);
    }
};

}  // namespace zulg
