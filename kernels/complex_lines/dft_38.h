// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 38.
// Complex DFT of 38 points, prime-factor, order 19, 2; two lines of a stage to a register.
// 108 sums, 94 differences, 110 products of registers, which do the 1320 steps of the graph, those with
// `scale` included; 28 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<38> {
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
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x2_21 = io.pairs(2, 21);
        const Q x36_17 = io.pairs(36, 17);
        // real block of 2
        const Q t0 = x2_21 + x36_17;
        const Q t1 = x2_21 - x36_17;
        const Q x8_27 = io.pairs(8, 27);
        const Q x30_11 = io.pairs(30, 11);
        // real block of 2
        const Q t2 = x8_27 + x30_11;
        const Q t3 = x8_27 - x30_11;
        const Q x32_13 = io.pairs(32, 13);
        const Q x6_25 = io.pairs(6, 25);
        // real block of 2
        const Q t4 = x32_13 + x6_25;
        const Q t5 = x32_13 - x6_25;
        const Q x14_33 = io.pairs(14, 33);
        const Q x24_5 = io.pairs(24, 5);
        // real block of 2
        const Q t6 = x14_33 + x24_5;
        const Q t7 = x14_33 - x24_5;
        const Q x18_37 = io.pairs(18, 37);
        const Q x20_1 = io.pairs(20, 1);
        // real block of 2
        const Q t8 = x18_37 + x20_1;
        const Q t9 = x18_37 - x20_1;
        const Q x34_15 = io.pairs(34, 15);
        const Q x4_23 = io.pairs(4, 23);
        // real block of 2
        const Q t10 = x34_15 + x4_23;
        const Q t11 = x34_15 - x4_23;
        const Q x22_3 = io.pairs(22, 3);
        const Q x16_35 = io.pairs(16, 35);
        // real block of 2
        const Q t12 = x22_3 + x16_35;
        const Q t13 = x22_3 - x16_35;
        const Q x12_31 = io.pairs(12, 31);
        const Q x26_7 = io.pairs(26, 7);
        // real block of 2
        const Q t14 = x12_31 + x26_7;
        const Q t15 = x12_31 - x26_7;
        const Q x10_29 = io.pairs(10, 29);
        const Q x28_9 = io.pairs(28, 9);
        // real block of 2
        const Q t16 = x10_29 + x28_9;
        const Q t17 = x10_29 - x28_9;
        // real block of 3, multiplier 2
        const Q t18 = t6 + t12;
        const Q t19 = t6 - t12;
        const Q t20 = t18 + t0;
        const Q t21 = c[0] * t18;
        const Q t22 = t0 - t21;
        // real block of 3, multiplier 2
        const Q t23 = t8 + t14;
        const Q t24 = t8 - t14;
        const Q t25 = t23 + t2;
        const Q t26 = c[0] * t23;
        const Q t27 = t2 - t26;
        // real block of 3, multiplier 2
        const Q t28 = t10 + t16;
        const Q t29 = t10 - t16;
        const Q t30 = t28 + t4;
        const Q t31 = c[0] * t28;
        const Q t32 = t4 - t31;
        // real block of 3, multiplier 2
        const Q t33 = t25 + t30;
        const Q t34 = t25 - t30;
        const Q t35 = t33 + t20;
        const Q t36 = c[0] * t33;
        const Q t37 = t20 - t36;
        // real block of 9, multiplier 2
        const Q t38 = c[2] * t27;
        // real block of 3, multiplier 2
        const Q t39 = c[1] * t24;
        // real block of 9, multiplier 2
        const Q t40 = c[3] * t39;
        const Q t41 = t38 + t40;
        const Q t42 = c[2] * t39;
        const Q t43 = c[3] * t27;
        const Q t44 = t42 - t43;
        // real block of 3, multiplier 2
        const Q t45 = c[1] * t29;
        // real block of 9, multiplier 2
        const Q t46 = c[4] * t45;
        const Q t47 = c[5] * t32;
        const Q t48 = t46 - t47;
        const Q t49 = c[5] * t45;
        const Q t50 = c[4] * t32;
        const Q t51 = t49 + t50;
        // complex block of 3, multiplier 2
        const Q t52 = t41 + t48;
        const Q t53 = t44 - t51;
        const Q t54 = t41 - t48;
        const Q t55 = t44 + t51;
        const Q t56 = t52 + t22;
        // real block of 3, multiplier 2
        const Q t57 = c[1] * t19;
        // complex block of 3, multiplier 2
        const Q t58 = t53 + t57;
        const Q t59 = c[0] * t52;
        const Q t60 = t22 - t59;
        const Q t61 = c[0] * t53;
        const Q t62 = t57 - t61;
        const Q t63 = c[1] * t55;
        const Q t64 = t60 + t63;
        const Q t65 = c[1] * t54;
        const Q t66 = t62 - t65;
        const Q t67 = t60 - t63;
        const Q t68 = t62 + t65;
        // real block of 3, multiplier 2
        const Q t69 = t7 + t13;
        const Q t70 = t7 - t13;
        const Q t71 = t69 + t1;
        const Q t72 = c[0] * t69;
        const Q t73 = t1 - t72;
        // real block of 3, multiplier 2
        const Q t74 = t9 + t15;
        const Q t75 = t9 - t15;
        const Q t76 = t74 + t3;
        const Q t77 = c[0] * t74;
        const Q t78 = t3 - t77;
        // real block of 3, multiplier 2
        const Q t79 = t11 + t17;
        const Q t80 = t11 - t17;
        const Q t81 = t79 + t5;
        const Q t82 = c[0] * t79;
        const Q t83 = t5 - t82;
        // real block of 3, multiplier 2
        const Q t84 = t76 + t81;
        const Q t85 = t76 - t81;
        const Q t86 = t84 + t71;
        const Q t87 = c[0] * t84;
        const Q t88 = t71 - t87;
        // real block of 9, multiplier 2
        const Q t89 = c[2] * t78;
        // real block of 3, multiplier 2
        const Q t90 = c[1] * t75;
        // real block of 9, multiplier 2
        const Q t91 = c[3] * t90;
        const Q t92 = t89 + t91;
        const Q t93 = c[2] * t90;
        const Q t94 = c[3] * t78;
        const Q t95 = t93 - t94;
        // real block of 3, multiplier 2
        const Q t96 = c[1] * t80;
        // real block of 9, multiplier 2
        const Q t97 = c[4] * t96;
        const Q t98 = c[5] * t83;
        const Q t99 = t97 - t98;
        const Q t100 = c[5] * t96;
        const Q t101 = c[4] * t83;
        const Q t102 = t100 + t101;
        // complex block of 3, multiplier 2
        const Q t103 = t92 + t99;
        const Q t104 = t95 - t102;
        const Q t105 = t92 - t99;
        const Q t106 = t95 + t102;
        const Q t107 = t103 + t73;
        // real block of 3, multiplier 2
        const Q t108 = c[1] * t70;
        // complex block of 3, multiplier 2
        const Q t109 = t104 + t108;
        const Q t110 = c[0] * t103;
        const Q t111 = t73 - t110;
        const Q t112 = c[0] * t104;
        const Q t113 = t108 - t112;
        const Q t114 = c[1] * t106;
        const Q t115 = t111 + t114;
        const Q t116 = c[1] * t105;
        const Q t117 = t113 - t116;
        const Q t118 = t111 - t114;
        const Q t119 = t113 + t116;
        const Q x0_19 = io.pairs(0, 19);
        // complex block of 19, multiplier 2
        const Q t120 = x0_19 + t35;
        const Q t121 = c[26] * t35;
        const Q t122 = x0_19 - t121;
        const Q t123 = shuffled<1, 0, 3, 2>(t119);
        const Q t124 = Q(-c[6], c[6], -c[6], c[6]) * t123;
        const Q t125 = shuffled<1, 0, 3, 2>(t118);
        const Q t126 = Q(c[7], -c[7], c[7], -c[7]) * t125;
        const Q t127 = t124 + t126;
        const Q t128 = c[7] * t123;
        const Q t129 = c[6] * t125;
        const Q t130 = t128 + t129;
        const Q t131 = c[8] * t56;
        const Q t132 = c[9] * t58;
        const Q t133 = t131 - t132;
        const Q t134 = c[8] * t58;
        const Q t135 = c[9] * t56;
        const Q t136 = t134 + t135;
        const Q t137 = shuffled<1, 0, 3, 2>(t88);
        const Q t138 = c[10] * t137;
        // real block of 3, multiplier 2
        const Q t139 = c[1] * t85;
        const Q t140 = shuffled<1, 0, 3, 2>(t139);
        // complex block of 19, multiplier 2
        const Q t141 = c[11] * t140;
        const Q t142 = t138 + t141;
        const Q t143 = Q(-c[10], c[10], -c[10], c[10]) * t140;
        const Q t144 = Q(c[11], -c[11], c[11], -c[11]) * t137;
        const Q t145 = t143 + t144;
        const Q t146 = c[12] * t64;
        const Q t147 = c[13] * t66;
        const Q t148 = t146 - t147;
        const Q t149 = c[12] * t66;
        const Q t150 = c[13] * t64;
        const Q t151 = t149 + t150;
        const Q t152 = shuffled<1, 0, 3, 2>(t115);
        const Q t153 = c[14] * t152;
        const Q t154 = shuffled<1, 0, 3, 2>(t117);
        const Q t155 = c[15] * t154;
        const Q t156 = t153 + t155;
        const Q t157 = Q(-c[14], c[14], -c[14], c[14]) * t154;
        const Q t158 = Q(c[15], -c[15], c[15], -c[15]) * t152;
        const Q t159 = t157 + t158;
        const Q t160 = c[16] * t37;
        // real block of 3, multiplier 2
        const Q t161 = c[1] * t34;
        // complex block of 19, multiplier 2
        const Q t162 = c[17] * t161;
        const Q t163 = t160 + t162;
        const Q t164 = c[16] * t161;
        const Q t165 = c[17] * t37;
        const Q t166 = t164 - t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t109);
        const Q t168 = Q(-c[18], c[18], -c[18], c[18]) * t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t107);
        const Q t170 = Q(c[19], -c[19], c[19], -c[19]) * t169;
        const Q t171 = t168 + t170;
        const Q t172 = c[19] * t167;
        const Q t173 = c[18] * t169;
        const Q t174 = t172 + t173;
        const Q t175 = c[20] * t68;
        const Q t176 = c[21] * t67;
        const Q t177 = t175 - t176;
        const Q t178 = c[21] * t68;
        const Q t179 = c[20] * t67;
        const Q t180 = t178 + t179;
        const Q t181 = shuffled<1, 0, 3, 2>(t86);
        const Q t182 = Q(-c[27], c[27], -c[27], c[27]) * t181;
        // spectrum block of 2
        const Q t183 = t122 + t182;
        const Q t184 = t122 - t182;
        const Q t185 = flipped<0, 1, 0, 1>(t174);
        // complex block of 2
        const Q t186 = t136 + t185;
        const Q t187 = t133 + t171;
        const Q t188 = t136 - t185;
        const Q t189 = t133 - t171;
        // complex block of 2
        const Q t190 = t151 + t159;
        const Q t191 = flipped<1, 0, 1, 0>(t156);
        const Q t192 = t148 + t191;
        const Q t193 = t159 - t151;
        const Q t194 = t148 - t191;
        // complex block of 2
        const Q t195 = t166 - t145;
        const Q t196 = flipped<0, 1, 0, 1>(t142);
        const Q t197 = t163 + t196;
        const Q t198 = t166 + t145;
        const Q t199 = t163 - t196;
        const Q t200 = flipped<1, 0, 1, 0>(t180);
        // complex block of 2
        const Q t201 = t200 + t130;
        const Q t202 = t177 + t127;
        const Q t203 = t130 - t200;
        const Q t204 = t177 - t127;
        // spectrum block of 3, multiplier 2
        const Q t205 = t197 + t183;
        const Q t206 = c[0] * t197;
        const Q t207 = t183 - t206;
        const Q t208 = c[1] * t195;
        const Q t209 = t207 - t208;
        const Q t210 = t207 + t208;
        const Q t211 = flipped<0, 1, 0, 1>(t201);
        // complex block of 3, multiplier 2
        const Q t212 = t190 + t211;
        const Q t213 = t202 + t192;
        const Q t214 = flipped<1, 0, 1, 0>(t190);
        const Q t215 = t201 + t214;
        const Q t216 = t202 - t192;
        const Q t217 = t212 + t186;
        const Q t218 = t213 + t187;
        const Q t219 = c[0] * t212;
        const Q t220 = t186 - t219;
        const Q t221 = c[0] * t213;
        const Q t222 = t187 - t221;
        const Q t223 = c[1] * t216;
        const Q t224 = t220 + t223;
        const Q t225 = Q(-c[1], c[1], -c[1], c[1]) * t215;
        const Q t226 = t222 + t225;
        const Q t227 = t220 - t223;
        const Q t228 = t222 - t225;
        // spectrum block of 9, multiplier 2
        const Q t229 = c[2] * t228;
        const Q t230 = c[3] * t227;
        const Q t231 = t229 - t230;
        const Q t232 = c[5] * t226;
        const Q t233 = c[4] * t224;
        const Q t234 = t232 + t233;
        // spectrum block of 3, multiplier 2
        const Q t235 = t218 + t205;
        const Q t236 = c[0] * t218;
        const Q t237 = t205 - t236;
        const Q t238 = c[1] * t217;
        const Q t239 = t237 - t238;
        const Q t240 = t237 + t238;
        // spectrum block of 3, multiplier 2
        const Q t241 = t231 + t210;
        const Q t242 = c[0] * t231;
        const Q t243 = t210 - t242;
        const Q t244 = c[22] * t227;
        const Q t245 = c[23] * t228;
        const Q t246 = t244 + t245;
        const Q t247 = t243 - t246;
        const Q t248 = t243 + t246;
        // spectrum block of 3, multiplier 2
        const Q t249 = t209 - t234;
        const Q t250 = c[0] * t234;
        const Q t251 = t250 + t209;
        const Q t252 = c[24] * t226;
        const Q t253 = c[25] * t224;
        const Q t254 = t252 - t253;
        const Q t255 = t251 - t254;
        const Q t256 = t251 + t254;
        // spectrum block of 3, multiplier 2
        const Q t257 = t199 + t184;
        const Q t258 = c[0] * t199;
        const Q t259 = t184 - t258;
        const Q t260 = c[1] * t198;
        const Q t261 = t259 - t260;
        const Q t262 = t259 + t260;
        const Q t263 = flipped<0, 1, 0, 1>(t193);
        // complex block of 3, multiplier 2
        const Q t264 = t203 + t263;
        const Q t265 = t204 + t194;
        const Q t266 = flipped<1, 0, 1, 0>(t203);
        const Q t267 = t266 + t193;
        const Q t268 = t204 - t194;
        const Q t269 = flipped<1, 0, 1, 0>(t264);
        const Q t270 = t269 + t188;
        const Q t271 = t265 + t189;
        const Q t272 = Q(c[0], -c[0], c[0], -c[0]) * t264;
        const Q t273 = t188 + t272;
        const Q t274 = c[0] * t265;
        const Q t275 = t189 - t274;
        const Q t276 = c[1] * t268;
        const Q t277 = t273 + t276;
        const Q t278 = c[1] * t267;
        const Q t279 = t275 - t278;
        const Q t280 = t273 - t276;
        const Q t281 = t275 + t278;
        // spectrum block of 9, multiplier 2
        const Q t282 = c[2] * t281;
        const Q t283 = c[3] * t280;
        const Q t284 = t282 - t283;
        const Q t285 = c[5] * t279;
        const Q t286 = c[4] * t277;
        const Q t287 = t285 + t286;
        // spectrum block of 3, multiplier 2
        const Q t288 = t271 + t257;
        const Q t289 = c[0] * t271;
        const Q t290 = t257 - t289;
        const Q t291 = c[1] * t270;
        const Q t292 = t290 - t291;
        const Q t293 = t290 + t291;
        // spectrum block of 3, multiplier 2
        const Q t294 = t284 + t262;
        const Q t295 = c[0] * t284;
        const Q t296 = t262 - t295;
        const Q t297 = c[22] * t280;
        const Q t298 = c[23] * t281;
        const Q t299 = t297 + t298;
        const Q t300 = t296 - t299;
        const Q t301 = t296 + t299;
        // spectrum block of 3, multiplier 2
        const Q t302 = t261 - t287;
        const Q t303 = c[0] * t287;
        const Q t304 = t303 + t261;
        const Q t305 = c[24] * t279;
        const Q t306 = c[25] * t277;
        const Q t307 = t305 - t306;
        const Q t308 = t304 - t307;
        const Q t309 = t304 + t307;
        const Q t310 = shuffled<0, 1, 4, 5>(t120, t235);
        const Q t311 = shuffled<2, 3, 6, 7>(t120, t235);
        // complex block of 2
        const Q t312 = t310 + t311;
        io.pairs(0, 2, t312);
        const Q t313 = t310 - t311;
        io.pairs(19, 21, t313);
        const Q t314 = shuffled<0, 1, 4, 5>(t301, t300);
        const Q t315 = shuffled<2, 3, 6, 7>(t301, t300);
        // complex block of 2
        const Q t316 = t314 + t315;
        io.pairs(4, 6, t316);
        const Q t317 = t314 - t315;
        io.pairs(23, 25, t317);
        const Q t318 = shuffled<0, 1, 4, 5>(t255, t241);
        const Q t319 = shuffled<2, 3, 6, 7>(t255, t241);
        // complex block of 2
        const Q t320 = t318 + t319;
        io.pairs(8, 10, t320);
        const Q t321 = t318 - t319;
        io.pairs(27, 29, t321);
        const Q t322 = shuffled<0, 1, 4, 5>(t249, t239);
        const Q t323 = shuffled<2, 3, 6, 7>(t249, t239);
        // complex block of 2
        const Q t324 = t322 + t323;
        io.pairs(12, 14, t324);
        const Q t325 = t322 - t323;
        io.pairs(31, 33, t325);
        const Q t326 = shuffled<0, 1, 4, 5>(t293, t256);
        const Q t327 = shuffled<2, 3, 6, 7>(t293, t256);
        // complex block of 2
        const Q t328 = t326 + t327;
        io.pairs(16, 18, t328);
        const Q t329 = t326 - t327;
        io.pairs(35, 37, t329);
        const Q t330 = shuffled<0, 1, 4, 5>(t309, t240);
        const Q t331 = shuffled<2, 3, 6, 7>(t309, t240);
        // complex block of 2
        const Q t332 = t330 + t331;
        io.pairs(20, 22, t332);
        const Q t333 = t330 - t331;
        io.pairs(1, 3, t333);
        const Q t334 = shuffled<0, 1, 4, 5>(t292, t302);
        const Q t335 = shuffled<2, 3, 6, 7>(t292, t302);
        // complex block of 2
        const Q t336 = t334 + t335;
        io.pairs(24, 26, t336);
        const Q t337 = t334 - t335;
        io.pairs(5, 7, t337);
        const Q t338 = shuffled<0, 1, 4, 5>(t294, t308);
        const Q t339 = shuffled<2, 3, 6, 7>(t294, t308);
        // complex block of 2
        const Q t340 = t338 + t339;
        io.pairs(28, 30, t340);
        const Q t341 = t338 - t339;
        io.pairs(9, 11, t341);
        const Q t342 = shuffled<0, 1, 4, 5>(t247, t248);
        const Q t343 = shuffled<2, 3, 6, 7>(t247, t248);
        // complex block of 2
        const Q t344 = t342 + t343;
        io.pairs(32, 34, t344);
        const Q t345 = t342 - t343;
        io.pairs(13, 15, t345);
        const P t346 = part<0>(t288);
        const P t347 = part<1>(t288);
        // complex block of 2
        const P t348 = t346 + t347;
        io.pair(36, t348);
        const P t349 = t346 - t347;
        io.pair(17, t349);
    }
};

}  // namespace zulg
