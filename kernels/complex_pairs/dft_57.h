// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 57.
// Complex DFT of 57 points, prime-factor, order 19, 3; one complex number to a register.
// 342 sums, 318 differences, 368 products of registers, which do the 2170 steps of the graph, those with
// `scale` included; 46 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<57> {
    static constexpr int steps = 2170;  // with `scale`
    static constexpr double inverseRoot = 0.13245323570650439;  // 1/sqrt(57), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.011219473461650014,  // c[6]: Q[1] of 19
        0.48419213608836237,  // c[7]: P[1] of 19
        0.4483141527641826,  // c[8]: -Q[2] of 19
        0.18325479984409965,  // c[9]: -P[2] of 19
        0.3937592850674352,  // c[10]: Q[3] of 19
        0.28199561460730244,  // c[11]: P[3] of 19
        0.0768648721323888,  // c[12]: P[4] of 19
        0.4781837436243932,  // c[13]: Q[4] of 19
        0.48432200167201295,  // c[14]: Q[5] of 19
        0.0003161186210583505,  // c[15]: -P[5] of 19
        0.47339199623771827,  // c[16]: P[6] of 19
        0.10231284930367265,  // c[17]: -Q[6] of 19
        0.19002677048035677,  // c[18]: Q[7] of 19
        0.4454859456092568,  // c[19]: P[7] of 19
        0.235501645151975,  // c[20]: P[8] of 19
        0.4232102035221754,  // c[21]: Q[8] of 19
        0.8528685319524432,  // c[22]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.1503837331804353,  // c[23]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.29619813272602386,  // c[24]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[25]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: -beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x3 = io.pair(3);
        const P x54 = io.pair(54);
        // real block of 2
        const P t0 = x3 + x54;
        const P t1 = x3 - x54;
        const P x12 = io.pair(12);
        const P x45 = io.pair(45);
        // real block of 2
        const P t2 = x12 + x45;
        const P t3 = x12 - x45;
        const P x48 = io.pair(48);
        const P x9 = io.pair(9);
        // real block of 2
        const P t4 = x48 + x9;
        const P t5 = x48 - x9;
        const P x21 = io.pair(21);
        const P x36 = io.pair(36);
        // real block of 2
        const P t6 = x21 + x36;
        const P t7 = x21 - x36;
        const P x27 = io.pair(27);
        const P x30 = io.pair(30);
        // real block of 2
        const P t8 = x27 + x30;
        const P t9 = x27 - x30;
        const P x51 = io.pair(51);
        const P x6 = io.pair(6);
        // real block of 2
        const P t10 = x51 + x6;
        const P t11 = x51 - x6;
        const P x33 = io.pair(33);
        const P x24 = io.pair(24);
        // real block of 2
        const P t12 = x33 + x24;
        const P t13 = x33 - x24;
        const P x18 = io.pair(18);
        const P x39 = io.pair(39);
        // real block of 2
        const P t14 = x18 + x39;
        const P t15 = x18 - x39;
        const P x15 = io.pair(15);
        const P x42 = io.pair(42);
        // real block of 2
        const P t16 = x15 + x42;
        const P t17 = x15 - x42;
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
        // complex block of 19, multiplier 3
        const P t120 = x0 + t35;
        const P t121 = c[26] * t35;
        const P t122 = x0 - t121;
        const P t123 = shuffled<1, 0>(t118);
        const P t124 = c[6] * t123;
        const P t125 = shuffled<1, 0>(t119);
        const P t126 = c[7] * t125;
        const P t127 = t124 + t126;
        const P t128 = P(-c[6], c[6]) * t125;
        const P t129 = P(c[7], -c[7]) * t123;
        const P t130 = t128 + t129;
        const P t131 = c[8] * t58;
        const P t132 = c[9] * t56;
        const P t133 = t131 - t132;
        const P t134 = c[9] * t58;
        const P t135 = c[8] * t56;
        const P t136 = t134 + t135;
        const P t137 = shuffled<1, 0>(t88);
        const P t138 = c[10] * t137;
        // real block of 3, multiplier 2
        const P t139 = c[1] * t85;
        const P t140 = shuffled<1, 0>(t139);
        // complex block of 19, multiplier 3
        const P t141 = c[11] * t140;
        const P t142 = t138 + t141;
        const P t143 = P(-c[10], c[10]) * t140;
        const P t144 = P(c[11], -c[11]) * t137;
        const P t145 = t143 + t144;
        const P t146 = c[12] * t64;
        const P t147 = c[13] * t66;
        const P t148 = t146 + t147;
        const P t149 = c[13] * t64;
        const P t150 = c[12] * t66;
        const P t151 = t149 - t150;
        const P t152 = shuffled<1, 0>(t115);
        const P t153 = c[14] * t152;
        const P t154 = shuffled<1, 0>(t117);
        const P t155 = c[15] * t154;
        const P t156 = t153 + t155;
        const P t157 = P(-c[15], c[15]) * t152;
        const P t158 = P(c[14], -c[14]) * t154;
        const P t159 = t157 + t158;
        const P t160 = c[16] * t37;
        // real block of 3, multiplier 2
        const P t161 = c[1] * t34;
        // complex block of 19, multiplier 3
        const P t162 = c[17] * t161;
        const P t163 = t160 + t162;
        const P t164 = c[16] * t161;
        const P t165 = c[17] * t37;
        const P t166 = t164 - t165;
        const P t167 = shuffled<1, 0>(t107);
        const P t168 = c[18] * t167;
        const P t169 = shuffled<1, 0>(t109);
        const P t170 = c[19] * t169;
        const P t171 = t168 + t170;
        const P t172 = P(-c[18], c[18]) * t169;
        const P t173 = P(c[19], -c[19]) * t167;
        const P t174 = t172 + t173;
        const P t175 = c[20] * t67;
        const P t176 = c[21] * t68;
        const P t177 = t175 - t176;
        const P t178 = c[20] * t68;
        const P t179 = c[21] * t67;
        const P t180 = t178 + t179;
        const P t181 = shuffled<1, 0>(t86);
        const P t182 = P(-c[27], c[27]) * t181;
        // spectrum block of 2
        const P t183 = t122 + t182;
        const P t184 = t122 - t182;
        // complex block of 2
        const P t185 = t136 + t174;
        const P t186 = flipped<0, 1>(t171);
        const P t187 = t133 + t186;
        const P t188 = t174 - t136;
        const P t189 = t133 - t186;
        // complex block of 2
        const P t190 = t151 - t159;
        const P t191 = flipped<0, 1>(t156);
        const P t192 = t148 + t191;
        const P t193 = t151 + t159;
        const P t194 = t148 - t191;
        // complex block of 2
        const P t195 = t166 - t145;
        const P t196 = flipped<0, 1>(t142);
        const P t197 = t163 + t196;
        const P t198 = t166 + t145;
        const P t199 = t163 - t196;
        // complex block of 2
        const P t200 = t180 - t130;
        const P t201 = flipped<0, 1>(t127);
        const P t202 = t177 + t201;
        const P t203 = t180 + t130;
        const P t204 = t177 - t201;
        // spectrum block of 3, multiplier 2
        const P t205 = t197 + t183;
        const P t206 = c[0] * t197;
        const P t207 = t183 - t206;
        const P t208 = c[1] * t195;
        const P t209 = t207 - t208;
        const P t210 = t207 + t208;
        // complex block of 3, multiplier 2
        const P t211 = t200 - t190;
        const P t212 = t202 + t192;
        const P t213 = t200 + t190;
        const P t214 = t202 - t192;
        const P t215 = t211 - t185;
        const P t216 = t212 + t187;
        const P t217 = c[0] * t211;
        const P t218 = t185 + t217;
        const P t219 = c[0] * t212;
        const P t220 = t187 - t219;
        const P t221 = c[1] * t214;
        const P t222 = t221 - t218;
        const P t223 = c[1] * t213;
        const P t224 = t220 - t223;
        const P t225 = t218 + t221;
        const P t226 = t220 + t223;
        // spectrum block of 9, multiplier 2
        const P t227 = c[2] * t226;
        const P t228 = c[3] * t225;
        const P t229 = t227 + t228;
        const P t230 = c[5] * t224;
        const P t231 = c[4] * t222;
        const P t232 = t230 + t231;
        // spectrum block of 3, multiplier 2
        const P t233 = t216 + t205;
        const P t234 = c[0] * t216;
        const P t235 = t205 - t234;
        const P t236 = c[1] * t215;
        const P t237 = t235 - t236;
        const P t238 = t235 + t236;
        // spectrum block of 3, multiplier 2
        const P t239 = t229 + t210;
        const P t240 = c[0] * t229;
        const P t241 = t210 - t240;
        const P t242 = c[22] * t226;
        const P t243 = c[23] * t225;
        const P t244 = t242 - t243;
        const P t245 = t241 - t244;
        const P t246 = t241 + t244;
        // spectrum block of 3, multiplier 2
        const P t247 = t209 - t232;
        const P t248 = c[0] * t232;
        const P t249 = t248 + t209;
        const P t250 = c[24] * t224;
        const P t251 = c[25] * t222;
        const P t252 = t250 - t251;
        const P t253 = t249 - t252;
        const P t254 = t249 + t252;
        // spectrum block of 3, multiplier 2
        const P t255 = t199 + t184;
        const P t256 = c[0] * t199;
        const P t257 = t184 - t256;
        const P t258 = c[1] * t198;
        const P t259 = t257 - t258;
        const P t260 = t257 + t258;
        // complex block of 3, multiplier 2
        const P t261 = t203 - t193;
        const P t262 = t204 + t194;
        const P t263 = t203 + t193;
        const P t264 = t204 - t194;
        const P t265 = t261 + t188;
        const P t266 = t262 + t189;
        const P t267 = c[0] * t261;
        const P t268 = t188 - t267;
        const P t269 = c[0] * t262;
        const P t270 = t189 - t269;
        const P t271 = c[1] * t264;
        const P t272 = t268 + t271;
        const P t273 = c[1] * t263;
        const P t274 = t270 - t273;
        const P t275 = t268 - t271;
        const P t276 = t270 + t273;
        // spectrum block of 9, multiplier 2
        const P t277 = c[2] * t276;
        const P t278 = c[3] * t275;
        const P t279 = t277 - t278;
        const P t280 = c[5] * t274;
        const P t281 = c[4] * t272;
        const P t282 = t280 + t281;
        // spectrum block of 3, multiplier 2
        const P t283 = t266 + t255;
        const P t284 = c[0] * t266;
        const P t285 = t255 - t284;
        const P t286 = c[1] * t265;
        const P t287 = t285 - t286;
        const P t288 = t285 + t286;
        // spectrum block of 3, multiplier 2
        const P t289 = t279 + t260;
        const P t290 = c[0] * t279;
        const P t291 = t260 - t290;
        const P t292 = c[23] * t275;
        const P t293 = c[22] * t276;
        const P t294 = t292 + t293;
        const P t295 = t291 - t294;
        const P t296 = t291 + t294;
        // spectrum block of 3, multiplier 2
        const P t297 = t259 - t282;
        const P t298 = c[0] * t282;
        const P t299 = t298 + t259;
        const P t300 = c[24] * t274;
        const P t301 = c[25] * t272;
        const P t302 = t300 - t301;
        const P t303 = t299 - t302;
        const P t304 = t299 + t302;
        const P x22 = io.pair(22);
        const P x16 = io.pair(16);
        // real block of 2
        const P t305 = x22 + x16;
        const P t306 = x22 - x16;
        const P x31 = io.pair(31);
        const P x7 = io.pair(7);
        // real block of 2
        const P t307 = x31 + x7;
        const P t308 = x31 - x7;
        const P x10 = io.pair(10);
        const P x28 = io.pair(28);
        // real block of 2
        const P t309 = x10 + x28;
        const P t310 = x10 - x28;
        const P x40 = io.pair(40);
        const P x55 = io.pair(55);
        // real block of 2
        const P t311 = x40 + x55;
        const P t312 = x40 - x55;
        const P x46 = io.pair(46);
        const P x49 = io.pair(49);
        // real block of 2
        const P t313 = x46 + x49;
        const P t314 = x46 - x49;
        const P x13 = io.pair(13);
        const P x25 = io.pair(25);
        // real block of 2
        const P t315 = x13 + x25;
        const P t316 = x13 - x25;
        const P x52 = io.pair(52);
        const P x43 = io.pair(43);
        // real block of 2
        const P t317 = x52 + x43;
        const P t318 = x52 - x43;
        const P x37 = io.pair(37);
        const P x1 = io.pair(1);
        // real block of 2
        const P t319 = x37 + x1;
        const P t320 = x37 - x1;
        const P x34 = io.pair(34);
        const P x4 = io.pair(4);
        // real block of 2
        const P t321 = x34 + x4;
        const P t322 = x34 - x4;
        // real block of 3, multiplier 2
        const P t323 = t311 + t317;
        const P t324 = t311 - t317;
        const P t325 = t323 + t305;
        const P t326 = c[0] * t323;
        const P t327 = t305 - t326;
        // real block of 3, multiplier 2
        const P t328 = t313 + t319;
        const P t329 = t313 - t319;
        const P t330 = t328 + t307;
        const P t331 = c[0] * t328;
        const P t332 = t307 - t331;
        // real block of 3, multiplier 2
        const P t333 = t315 + t321;
        const P t334 = t315 - t321;
        const P t335 = t333 + t309;
        const P t336 = c[0] * t333;
        const P t337 = t309 - t336;
        // real block of 3, multiplier 2
        const P t338 = t330 + t335;
        const P t339 = t330 - t335;
        const P t340 = t338 + t325;
        const P t341 = c[0] * t338;
        const P t342 = t325 - t341;
        // real block of 9, multiplier 2
        const P t343 = c[2] * t332;
        // real block of 3, multiplier 2
        const P t344 = c[1] * t329;
        // real block of 9, multiplier 2
        const P t345 = c[3] * t344;
        const P t346 = t343 + t345;
        const P t347 = c[2] * t344;
        const P t348 = c[3] * t332;
        const P t349 = t347 - t348;
        // real block of 3, multiplier 2
        const P t350 = c[1] * t334;
        // real block of 9, multiplier 2
        const P t351 = c[4] * t350;
        const P t352 = c[5] * t337;
        const P t353 = t351 - t352;
        const P t354 = c[5] * t350;
        const P t355 = c[4] * t337;
        const P t356 = t354 + t355;
        // complex block of 3, multiplier 2
        const P t357 = t346 + t353;
        const P t358 = t349 - t356;
        const P t359 = t346 - t353;
        const P t360 = t349 + t356;
        const P t361 = t357 + t327;
        // real block of 3, multiplier 2
        const P t362 = c[1] * t324;
        // complex block of 3, multiplier 2
        const P t363 = t358 + t362;
        const P t364 = c[0] * t357;
        const P t365 = t327 - t364;
        const P t366 = c[0] * t358;
        const P t367 = t362 - t366;
        const P t368 = c[1] * t360;
        const P t369 = t365 + t368;
        const P t370 = c[1] * t359;
        const P t371 = t367 - t370;
        const P t372 = t365 - t368;
        const P t373 = t367 + t370;
        // real block of 3, multiplier 2
        const P t374 = t312 + t318;
        const P t375 = t312 - t318;
        const P t376 = t374 + t306;
        const P t377 = c[0] * t374;
        const P t378 = t306 - t377;
        // real block of 3, multiplier 2
        const P t379 = t314 + t320;
        const P t380 = t314 - t320;
        const P t381 = t379 + t308;
        const P t382 = c[0] * t379;
        const P t383 = t308 - t382;
        // real block of 3, multiplier 2
        const P t384 = t316 + t322;
        const P t385 = t316 - t322;
        const P t386 = t384 + t310;
        const P t387 = c[0] * t384;
        const P t388 = t310 - t387;
        // real block of 3, multiplier 2
        const P t389 = t381 + t386;
        const P t390 = t381 - t386;
        const P t391 = t389 + t376;
        const P t392 = c[0] * t389;
        const P t393 = t376 - t392;
        // real block of 9, multiplier 2
        const P t394 = c[2] * t383;
        // real block of 3, multiplier 2
        const P t395 = c[1] * t380;
        // real block of 9, multiplier 2
        const P t396 = c[3] * t395;
        const P t397 = t394 + t396;
        const P t398 = c[2] * t395;
        const P t399 = c[3] * t383;
        const P t400 = t398 - t399;
        // real block of 3, multiplier 2
        const P t401 = c[1] * t385;
        // real block of 9, multiplier 2
        const P t402 = c[4] * t401;
        const P t403 = c[5] * t388;
        const P t404 = t402 - t403;
        const P t405 = c[5] * t401;
        const P t406 = c[4] * t388;
        const P t407 = t405 + t406;
        // complex block of 3, multiplier 2
        const P t408 = t397 + t404;
        const P t409 = t400 - t407;
        const P t410 = t397 - t404;
        const P t411 = t400 + t407;
        const P t412 = t408 + t378;
        // real block of 3, multiplier 2
        const P t413 = c[1] * t375;
        // complex block of 3, multiplier 2
        const P t414 = t409 + t413;
        const P t415 = c[0] * t408;
        const P t416 = t378 - t415;
        const P t417 = c[0] * t409;
        const P t418 = t413 - t417;
        const P t419 = c[1] * t411;
        const P t420 = t416 + t419;
        const P t421 = c[1] * t410;
        const P t422 = t418 - t421;
        const P t423 = t416 - t419;
        const P t424 = t418 + t421;
        const P x19 = io.pair(19);
        // complex block of 19, multiplier 3
        const P t425 = x19 + t340;
        const P t426 = c[26] * t340;
        const P t427 = x19 - t426;
        const P t428 = shuffled<1, 0>(t423);
        const P t429 = c[6] * t428;
        const P t430 = shuffled<1, 0>(t424);
        const P t431 = c[7] * t430;
        const P t432 = t429 + t431;
        const P t433 = P(-c[6], c[6]) * t430;
        const P t434 = P(c[7], -c[7]) * t428;
        const P t435 = t433 + t434;
        const P t436 = c[8] * t363;
        const P t437 = c[9] * t361;
        const P t438 = t436 - t437;
        const P t439 = c[9] * t363;
        const P t440 = c[8] * t361;
        const P t441 = t439 + t440;
        const P t442 = shuffled<1, 0>(t393);
        const P t443 = c[10] * t442;
        // real block of 3, multiplier 2
        const P t444 = c[1] * t390;
        const P t445 = shuffled<1, 0>(t444);
        // complex block of 19, multiplier 3
        const P t446 = c[11] * t445;
        const P t447 = t443 + t446;
        const P t448 = P(-c[10], c[10]) * t445;
        const P t449 = P(c[11], -c[11]) * t442;
        const P t450 = t448 + t449;
        const P t451 = c[12] * t369;
        const P t452 = c[13] * t371;
        const P t453 = t451 + t452;
        const P t454 = c[13] * t369;
        const P t455 = c[12] * t371;
        const P t456 = t454 - t455;
        const P t457 = shuffled<1, 0>(t420);
        const P t458 = c[14] * t457;
        const P t459 = shuffled<1, 0>(t422);
        const P t460 = c[15] * t459;
        const P t461 = t458 + t460;
        const P t462 = P(-c[15], c[15]) * t457;
        const P t463 = P(c[14], -c[14]) * t459;
        const P t464 = t462 + t463;
        const P t465 = c[16] * t342;
        // real block of 3, multiplier 2
        const P t466 = c[1] * t339;
        // complex block of 19, multiplier 3
        const P t467 = c[17] * t466;
        const P t468 = t465 + t467;
        const P t469 = c[16] * t466;
        const P t470 = c[17] * t342;
        const P t471 = t469 - t470;
        const P t472 = shuffled<1, 0>(t412);
        const P t473 = c[18] * t472;
        const P t474 = shuffled<1, 0>(t414);
        const P t475 = c[19] * t474;
        const P t476 = t473 + t475;
        const P t477 = P(-c[18], c[18]) * t474;
        const P t478 = P(c[19], -c[19]) * t472;
        const P t479 = t477 + t478;
        const P t480 = c[20] * t372;
        const P t481 = c[21] * t373;
        const P t482 = t480 - t481;
        const P t483 = c[20] * t373;
        const P t484 = c[21] * t372;
        const P t485 = t483 + t484;
        const P t486 = shuffled<1, 0>(t391);
        const P t487 = P(-c[27], c[27]) * t486;
        // spectrum block of 2
        const P t488 = t427 + t487;
        const P t489 = t427 - t487;
        // complex block of 2
        const P t490 = t441 + t479;
        const P t491 = flipped<0, 1>(t476);
        const P t492 = t438 + t491;
        const P t493 = t479 - t441;
        const P t494 = t438 - t491;
        // complex block of 2
        const P t495 = t456 - t464;
        const P t496 = flipped<0, 1>(t461);
        const P t497 = t453 + t496;
        const P t498 = t456 + t464;
        const P t499 = t453 - t496;
        // complex block of 2
        const P t500 = t471 - t450;
        const P t501 = flipped<0, 1>(t447);
        const P t502 = t468 + t501;
        const P t503 = t471 + t450;
        const P t504 = t468 - t501;
        // complex block of 2
        const P t505 = t485 - t435;
        const P t506 = flipped<0, 1>(t432);
        const P t507 = t482 + t506;
        const P t508 = t485 + t435;
        const P t509 = t482 - t506;
        // spectrum block of 3, multiplier 2
        const P t510 = t502 + t488;
        const P t511 = c[0] * t502;
        const P t512 = t488 - t511;
        const P t513 = c[1] * t500;
        const P t514 = t512 - t513;
        const P t515 = t512 + t513;
        // complex block of 3, multiplier 2
        const P t516 = t505 - t495;
        const P t517 = t507 + t497;
        const P t518 = t505 + t495;
        const P t519 = t507 - t497;
        const P t520 = t516 - t490;
        const P t521 = t517 + t492;
        const P t522 = c[0] * t516;
        const P t523 = t490 + t522;
        const P t524 = c[0] * t517;
        const P t525 = t492 - t524;
        const P t526 = c[1] * t519;
        const P t527 = t526 - t523;
        const P t528 = c[1] * t518;
        const P t529 = t525 - t528;
        const P t530 = t523 + t526;
        const P t531 = t525 + t528;
        // spectrum block of 9, multiplier 2
        const P t532 = c[2] * t531;
        const P t533 = c[3] * t530;
        const P t534 = t532 + t533;
        const P t535 = c[5] * t529;
        const P t536 = c[4] * t527;
        const P t537 = t535 + t536;
        // spectrum block of 3, multiplier 2
        const P t538 = t521 + t510;
        const P t539 = c[0] * t521;
        const P t540 = t510 - t539;
        const P t541 = c[1] * t520;
        const P t542 = t540 - t541;
        const P t543 = t540 + t541;
        // spectrum block of 3, multiplier 2
        const P t544 = t534 + t515;
        const P t545 = c[0] * t534;
        const P t546 = t515 - t545;
        const P t547 = c[22] * t531;
        const P t548 = c[23] * t530;
        const P t549 = t547 - t548;
        const P t550 = t546 - t549;
        const P t551 = t546 + t549;
        // spectrum block of 3, multiplier 2
        const P t552 = t514 - t537;
        const P t553 = c[0] * t537;
        const P t554 = t553 + t514;
        const P t555 = c[24] * t529;
        const P t556 = c[25] * t527;
        const P t557 = t555 - t556;
        const P t558 = t554 - t557;
        const P t559 = t554 + t557;
        // spectrum block of 3, multiplier 2
        const P t560 = t504 + t489;
        const P t561 = c[0] * t504;
        const P t562 = t489 - t561;
        const P t563 = c[1] * t503;
        const P t564 = t562 - t563;
        const P t565 = t562 + t563;
        // complex block of 3, multiplier 2
        const P t566 = t508 - t498;
        const P t567 = t509 + t499;
        const P t568 = t508 + t498;
        const P t569 = t509 - t499;
        const P t570 = t566 + t493;
        const P t571 = t567 + t494;
        const P t572 = c[0] * t566;
        const P t573 = t493 - t572;
        const P t574 = c[0] * t567;
        const P t575 = t494 - t574;
        const P t576 = c[1] * t569;
        const P t577 = t573 + t576;
        const P t578 = c[1] * t568;
        const P t579 = t575 - t578;
        const P t580 = t573 - t576;
        const P t581 = t575 + t578;
        // spectrum block of 9, multiplier 2
        const P t582 = c[2] * t581;
        const P t583 = c[3] * t580;
        const P t584 = t582 - t583;
        const P t585 = c[5] * t579;
        const P t586 = c[4] * t577;
        const P t587 = t585 + t586;
        // spectrum block of 3, multiplier 2
        const P t588 = t571 + t560;
        const P t589 = c[0] * t571;
        const P t590 = t560 - t589;
        const P t591 = c[1] * t570;
        const P t592 = t590 - t591;
        const P t593 = t590 + t591;
        // spectrum block of 3, multiplier 2
        const P t594 = t584 + t565;
        const P t595 = c[0] * t584;
        const P t596 = t565 - t595;
        const P t597 = c[23] * t580;
        const P t598 = c[22] * t581;
        const P t599 = t597 + t598;
        const P t600 = t596 - t599;
        const P t601 = t596 + t599;
        // spectrum block of 3, multiplier 2
        const P t602 = t564 - t587;
        const P t603 = c[0] * t587;
        const P t604 = t603 + t564;
        const P t605 = c[24] * t579;
        const P t606 = c[25] * t577;
        const P t607 = t605 - t606;
        const P t608 = t604 - t607;
        const P t609 = t604 + t607;
        const P x41 = io.pair(41);
        const P x35 = io.pair(35);
        // real block of 2
        const P t610 = x41 + x35;
        const P t611 = x41 - x35;
        const P x50 = io.pair(50);
        const P x26 = io.pair(26);
        // real block of 2
        const P t612 = x50 + x26;
        const P t613 = x50 - x26;
        const P x29 = io.pair(29);
        const P x47 = io.pair(47);
        // real block of 2
        const P t614 = x29 + x47;
        const P t615 = x29 - x47;
        const P x2 = io.pair(2);
        const P x17 = io.pair(17);
        // real block of 2
        const P t616 = x2 + x17;
        const P t617 = x2 - x17;
        const P x8 = io.pair(8);
        const P x11 = io.pair(11);
        // real block of 2
        const P t618 = x8 + x11;
        const P t619 = x8 - x11;
        const P x32 = io.pair(32);
        const P x44 = io.pair(44);
        // real block of 2
        const P t620 = x32 + x44;
        const P t621 = x32 - x44;
        const P x14 = io.pair(14);
        const P x5 = io.pair(5);
        // real block of 2
        const P t622 = x14 + x5;
        const P t623 = x14 - x5;
        const P x56 = io.pair(56);
        const P x20 = io.pair(20);
        // real block of 2
        const P t624 = x56 + x20;
        const P t625 = x56 - x20;
        const P x53 = io.pair(53);
        const P x23 = io.pair(23);
        // real block of 2
        const P t626 = x53 + x23;
        const P t627 = x53 - x23;
        // real block of 3, multiplier 2
        const P t628 = t616 + t622;
        const P t629 = t616 - t622;
        const P t630 = t628 + t610;
        const P t631 = c[0] * t628;
        const P t632 = t610 - t631;
        // real block of 3, multiplier 2
        const P t633 = t618 + t624;
        const P t634 = t618 - t624;
        const P t635 = t633 + t612;
        const P t636 = c[0] * t633;
        const P t637 = t612 - t636;
        // real block of 3, multiplier 2
        const P t638 = t620 + t626;
        const P t639 = t620 - t626;
        const P t640 = t638 + t614;
        const P t641 = c[0] * t638;
        const P t642 = t614 - t641;
        // real block of 3, multiplier 2
        const P t643 = t635 + t640;
        const P t644 = t635 - t640;
        const P t645 = t643 + t630;
        const P t646 = c[0] * t643;
        const P t647 = t630 - t646;
        // real block of 9, multiplier 2
        const P t648 = c[2] * t637;
        // real block of 3, multiplier 2
        const P t649 = c[1] * t634;
        // real block of 9, multiplier 2
        const P t650 = c[3] * t649;
        const P t651 = t648 + t650;
        const P t652 = c[2] * t649;
        const P t653 = c[3] * t637;
        const P t654 = t652 - t653;
        // real block of 3, multiplier 2
        const P t655 = c[1] * t639;
        // real block of 9, multiplier 2
        const P t656 = c[4] * t655;
        const P t657 = c[5] * t642;
        const P t658 = t656 - t657;
        const P t659 = c[5] * t655;
        const P t660 = c[4] * t642;
        const P t661 = t659 + t660;
        // complex block of 3, multiplier 2
        const P t662 = t651 + t658;
        const P t663 = t654 - t661;
        const P t664 = t651 - t658;
        const P t665 = t654 + t661;
        const P t666 = t662 + t632;
        // real block of 3, multiplier 2
        const P t667 = c[1] * t629;
        // complex block of 3, multiplier 2
        const P t668 = t663 + t667;
        const P t669 = c[0] * t662;
        const P t670 = t632 - t669;
        const P t671 = c[0] * t663;
        const P t672 = t667 - t671;
        const P t673 = c[1] * t665;
        const P t674 = t670 + t673;
        const P t675 = c[1] * t664;
        const P t676 = t672 - t675;
        const P t677 = t670 - t673;
        const P t678 = t672 + t675;
        // real block of 3, multiplier 2
        const P t679 = t617 + t623;
        const P t680 = t617 - t623;
        const P t681 = t679 + t611;
        const P t682 = c[0] * t679;
        const P t683 = t611 - t682;
        // real block of 3, multiplier 2
        const P t684 = t619 + t625;
        const P t685 = t619 - t625;
        const P t686 = t684 + t613;
        const P t687 = c[0] * t684;
        const P t688 = t613 - t687;
        // real block of 3, multiplier 2
        const P t689 = t621 + t627;
        const P t690 = t621 - t627;
        const P t691 = t689 + t615;
        const P t692 = c[0] * t689;
        const P t693 = t615 - t692;
        // real block of 3, multiplier 2
        const P t694 = t686 + t691;
        const P t695 = t686 - t691;
        const P t696 = t694 + t681;
        const P t697 = c[0] * t694;
        const P t698 = t681 - t697;
        // real block of 9, multiplier 2
        const P t699 = c[2] * t688;
        // real block of 3, multiplier 2
        const P t700 = c[1] * t685;
        // real block of 9, multiplier 2
        const P t701 = c[3] * t700;
        const P t702 = t699 + t701;
        const P t703 = c[2] * t700;
        const P t704 = c[3] * t688;
        const P t705 = t703 - t704;
        // real block of 3, multiplier 2
        const P t706 = c[1] * t690;
        // real block of 9, multiplier 2
        const P t707 = c[4] * t706;
        const P t708 = c[5] * t693;
        const P t709 = t707 - t708;
        const P t710 = c[5] * t706;
        const P t711 = c[4] * t693;
        const P t712 = t710 + t711;
        // complex block of 3, multiplier 2
        const P t713 = t702 + t709;
        const P t714 = t705 - t712;
        const P t715 = t702 - t709;
        const P t716 = t705 + t712;
        const P t717 = t713 + t683;
        // real block of 3, multiplier 2
        const P t718 = c[1] * t680;
        // complex block of 3, multiplier 2
        const P t719 = t714 + t718;
        const P t720 = c[0] * t713;
        const P t721 = t683 - t720;
        const P t722 = c[0] * t714;
        const P t723 = t718 - t722;
        const P t724 = c[1] * t716;
        const P t725 = t721 + t724;
        const P t726 = c[1] * t715;
        const P t727 = t723 - t726;
        const P t728 = t721 - t724;
        const P t729 = t723 + t726;
        const P x38 = io.pair(38);
        // complex block of 19, multiplier 3
        const P t730 = x38 + t645;
        const P t731 = c[26] * t645;
        const P t732 = x38 - t731;
        const P t733 = shuffled<1, 0>(t728);
        const P t734 = c[6] * t733;
        const P t735 = shuffled<1, 0>(t729);
        const P t736 = c[7] * t735;
        const P t737 = t734 + t736;
        const P t738 = P(-c[6], c[6]) * t735;
        const P t739 = P(c[7], -c[7]) * t733;
        const P t740 = t738 + t739;
        const P t741 = c[8] * t668;
        const P t742 = c[9] * t666;
        const P t743 = t741 - t742;
        const P t744 = c[9] * t668;
        const P t745 = c[8] * t666;
        const P t746 = t744 + t745;
        const P t747 = shuffled<1, 0>(t698);
        const P t748 = c[10] * t747;
        // real block of 3, multiplier 2
        const P t749 = c[1] * t695;
        const P t750 = shuffled<1, 0>(t749);
        // complex block of 19, multiplier 3
        const P t751 = c[11] * t750;
        const P t752 = t748 + t751;
        const P t753 = P(-c[10], c[10]) * t750;
        const P t754 = P(c[11], -c[11]) * t747;
        const P t755 = t753 + t754;
        const P t756 = c[12] * t674;
        const P t757 = c[13] * t676;
        const P t758 = t756 + t757;
        const P t759 = c[13] * t674;
        const P t760 = c[12] * t676;
        const P t761 = t759 - t760;
        const P t762 = shuffled<1, 0>(t725);
        const P t763 = c[14] * t762;
        const P t764 = shuffled<1, 0>(t727);
        const P t765 = c[15] * t764;
        const P t766 = t763 + t765;
        const P t767 = P(-c[15], c[15]) * t762;
        const P t768 = P(c[14], -c[14]) * t764;
        const P t769 = t767 + t768;
        const P t770 = c[16] * t647;
        // real block of 3, multiplier 2
        const P t771 = c[1] * t644;
        // complex block of 19, multiplier 3
        const P t772 = c[17] * t771;
        const P t773 = t770 + t772;
        const P t774 = c[16] * t771;
        const P t775 = c[17] * t647;
        const P t776 = t774 - t775;
        const P t777 = shuffled<1, 0>(t717);
        const P t778 = c[18] * t777;
        const P t779 = shuffled<1, 0>(t719);
        const P t780 = c[19] * t779;
        const P t781 = t778 + t780;
        const P t782 = P(-c[18], c[18]) * t779;
        const P t783 = P(c[19], -c[19]) * t777;
        const P t784 = t782 + t783;
        const P t785 = c[20] * t677;
        const P t786 = c[21] * t678;
        const P t787 = t785 - t786;
        const P t788 = c[20] * t678;
        const P t789 = c[21] * t677;
        const P t790 = t788 + t789;
        const P t791 = shuffled<1, 0>(t696);
        const P t792 = P(-c[27], c[27]) * t791;
        // spectrum block of 2
        const P t793 = t732 + t792;
        const P t794 = t732 - t792;
        // complex block of 2
        const P t795 = t746 + t784;
        const P t796 = flipped<0, 1>(t781);
        const P t797 = t743 + t796;
        const P t798 = t784 - t746;
        const P t799 = t743 - t796;
        // complex block of 2
        const P t800 = t761 - t769;
        const P t801 = flipped<0, 1>(t766);
        const P t802 = t758 + t801;
        const P t803 = t761 + t769;
        const P t804 = t758 - t801;
        // complex block of 2
        const P t805 = t776 - t755;
        const P t806 = flipped<0, 1>(t752);
        const P t807 = t773 + t806;
        const P t808 = t776 + t755;
        const P t809 = t773 - t806;
        // complex block of 2
        const P t810 = t790 - t740;
        const P t811 = flipped<0, 1>(t737);
        const P t812 = t787 + t811;
        const P t813 = t790 + t740;
        const P t814 = t787 - t811;
        // spectrum block of 3, multiplier 2
        const P t815 = t807 + t793;
        const P t816 = c[0] * t807;
        const P t817 = t793 - t816;
        const P t818 = c[1] * t805;
        const P t819 = t817 - t818;
        const P t820 = t817 + t818;
        // complex block of 3, multiplier 2
        const P t821 = t810 - t800;
        const P t822 = t812 + t802;
        const P t823 = t810 + t800;
        const P t824 = t812 - t802;
        const P t825 = t821 - t795;
        const P t826 = t822 + t797;
        const P t827 = c[0] * t821;
        const P t828 = t795 + t827;
        const P t829 = c[0] * t822;
        const P t830 = t797 - t829;
        const P t831 = c[1] * t824;
        const P t832 = t831 - t828;
        const P t833 = c[1] * t823;
        const P t834 = t830 - t833;
        const P t835 = t828 + t831;
        const P t836 = t830 + t833;
        // spectrum block of 9, multiplier 2
        const P t837 = c[2] * t836;
        const P t838 = c[3] * t835;
        const P t839 = t837 + t838;
        const P t840 = c[5] * t834;
        const P t841 = c[4] * t832;
        const P t842 = t840 + t841;
        // spectrum block of 3, multiplier 2
        const P t843 = t826 + t815;
        const P t844 = c[0] * t826;
        const P t845 = t815 - t844;
        const P t846 = c[1] * t825;
        const P t847 = t845 - t846;
        const P t848 = t845 + t846;
        // spectrum block of 3, multiplier 2
        const P t849 = t839 + t820;
        const P t850 = c[0] * t839;
        const P t851 = t820 - t850;
        const P t852 = c[22] * t836;
        const P t853 = c[23] * t835;
        const P t854 = t852 - t853;
        const P t855 = t851 - t854;
        const P t856 = t851 + t854;
        // spectrum block of 3, multiplier 2
        const P t857 = t819 - t842;
        const P t858 = c[0] * t842;
        const P t859 = t858 + t819;
        const P t860 = c[24] * t834;
        const P t861 = c[25] * t832;
        const P t862 = t860 - t861;
        const P t863 = t859 - t862;
        const P t864 = t859 + t862;
        // spectrum block of 3, multiplier 2
        const P t865 = t809 + t794;
        const P t866 = c[0] * t809;
        const P t867 = t794 - t866;
        const P t868 = c[1] * t808;
        const P t869 = t867 - t868;
        const P t870 = t867 + t868;
        // complex block of 3, multiplier 2
        const P t871 = t813 - t803;
        const P t872 = t814 + t804;
        const P t873 = t813 + t803;
        const P t874 = t814 - t804;
        const P t875 = t871 + t798;
        const P t876 = t872 + t799;
        const P t877 = c[0] * t871;
        const P t878 = t798 - t877;
        const P t879 = c[0] * t872;
        const P t880 = t799 - t879;
        const P t881 = c[1] * t874;
        const P t882 = t878 + t881;
        const P t883 = c[1] * t873;
        const P t884 = t880 - t883;
        const P t885 = t878 - t881;
        const P t886 = t880 + t883;
        // spectrum block of 9, multiplier 2
        const P t887 = c[2] * t886;
        const P t888 = c[3] * t885;
        const P t889 = t887 - t888;
        const P t890 = c[5] * t884;
        const P t891 = c[4] * t882;
        const P t892 = t890 + t891;
        // spectrum block of 3, multiplier 2
        const P t893 = t876 + t865;
        const P t894 = c[0] * t876;
        const P t895 = t865 - t894;
        const P t896 = c[1] * t875;
        const P t897 = t895 - t896;
        const P t898 = t895 + t896;
        // spectrum block of 3, multiplier 2
        const P t899 = t889 + t870;
        const P t900 = c[0] * t889;
        const P t901 = t870 - t900;
        const P t902 = c[23] * t885;
        const P t903 = c[22] * t886;
        const P t904 = t902 + t903;
        const P t905 = t901 - t904;
        const P t906 = t901 + t904;
        // spectrum block of 3, multiplier 2
        const P t907 = t869 - t892;
        const P t908 = c[0] * t892;
        const P t909 = t908 + t869;
        const P t910 = c[24] * t884;
        const P t911 = c[25] * t882;
        const P t912 = t910 - t911;
        const P t913 = t909 - t912;
        const P t914 = t909 + t912;
        // complex block of 3
        const P t915 = t425 + t730;
        const P t916 = t425 - t730;
        const P t917 = t915 + t120;
        io.pair(0, t917);
        const P t918 = c[0] * t915;
        const P t919 = t120 - t918;
        const P t920 = P(-c[1], c[1]) * t916;
        const P t921 = shuffled<1, 0>(t920);
        const P t922 = t919 + t921;
        io.pair(19, t922);
        const P t923 = t919 - t921;
        io.pair(38, t923);
        // complex block of 3
        const P t924 = t538 + t843;
        const P t925 = t538 - t843;
        const P t926 = t924 + t233;
        io.pair(3, t926);
        const P t927 = c[0] * t924;
        const P t928 = t233 - t927;
        const P t929 = P(-c[1], c[1]) * t925;
        const P t930 = shuffled<1, 0>(t929);
        const P t931 = t928 + t930;
        io.pair(22, t931);
        const P t932 = t928 - t930;
        io.pair(41, t932);
        // complex block of 3
        const P t933 = t601 + t906;
        const P t934 = t601 - t906;
        const P t935 = t933 + t296;
        io.pair(6, t935);
        const P t936 = c[0] * t933;
        const P t937 = t296 - t936;
        const P t938 = P(-c[1], c[1]) * t934;
        const P t939 = shuffled<1, 0>(t938);
        const P t940 = t937 + t939;
        io.pair(25, t940);
        const P t941 = t937 - t939;
        io.pair(44, t941);
        // complex block of 3
        const P t942 = t600 + t905;
        const P t943 = t600 - t905;
        const P t944 = t942 + t295;
        io.pair(9, t944);
        const P t945 = c[0] * t942;
        const P t946 = t295 - t945;
        const P t947 = P(-c[1], c[1]) * t943;
        const P t948 = shuffled<1, 0>(t947);
        const P t949 = t946 + t948;
        io.pair(28, t949);
        const P t950 = t946 - t948;
        io.pair(47, t950);
        // complex block of 3
        const P t951 = t558 + t863;
        const P t952 = t558 - t863;
        const P t953 = t951 + t253;
        io.pair(12, t953);
        const P t954 = c[0] * t951;
        const P t955 = t253 - t954;
        const P t956 = P(-c[1], c[1]) * t952;
        const P t957 = shuffled<1, 0>(t956);
        const P t958 = t955 + t957;
        io.pair(31, t958);
        const P t959 = t955 - t957;
        io.pair(50, t959);
        // complex block of 3
        const P t960 = t544 + t849;
        const P t961 = t544 - t849;
        const P t962 = t960 + t239;
        io.pair(15, t962);
        const P t963 = c[0] * t960;
        const P t964 = t239 - t963;
        const P t965 = P(-c[1], c[1]) * t961;
        const P t966 = shuffled<1, 0>(t965);
        const P t967 = t964 + t966;
        io.pair(34, t967);
        const P t968 = t964 - t966;
        io.pair(53, t968);
        // complex block of 3
        const P t969 = t552 + t857;
        const P t970 = t552 - t857;
        const P t971 = t969 + t247;
        io.pair(18, t971);
        const P t972 = c[0] * t969;
        const P t973 = t247 - t972;
        const P t974 = P(-c[1], c[1]) * t970;
        const P t975 = shuffled<1, 0>(t974);
        const P t976 = t973 + t975;
        io.pair(37, t976);
        const P t977 = t973 - t975;
        io.pair(56, t977);
        // complex block of 3
        const P t978 = t542 + t847;
        const P t979 = t542 - t847;
        const P t980 = t978 + t237;
        io.pair(21, t980);
        const P t981 = c[0] * t978;
        const P t982 = t237 - t981;
        const P t983 = P(-c[1], c[1]) * t979;
        const P t984 = shuffled<1, 0>(t983);
        const P t985 = t982 + t984;
        io.pair(40, t985);
        const P t986 = t982 - t984;
        io.pair(2, t986);
        // complex block of 3
        const P t987 = t593 + t898;
        const P t988 = t593 - t898;
        const P t989 = t987 + t288;
        io.pair(24, t989);
        const P t990 = c[0] * t987;
        const P t991 = t288 - t990;
        const P t992 = P(-c[1], c[1]) * t988;
        const P t993 = shuffled<1, 0>(t992);
        const P t994 = t991 + t993;
        io.pair(43, t994);
        const P t995 = t991 - t993;
        io.pair(5, t995);
        // complex block of 3
        const P t996 = t559 + t864;
        const P t997 = t559 - t864;
        const P t998 = t996 + t254;
        io.pair(27, t998);
        const P t999 = c[0] * t996;
        const P t1000 = t254 - t999;
        const P t1001 = P(-c[1], c[1]) * t997;
        const P t1002 = shuffled<1, 0>(t1001);
        const P t1003 = t1000 + t1002;
        io.pair(46, t1003);
        const P t1004 = t1000 - t1002;
        io.pair(8, t1004);
        // complex block of 3
        const P t1005 = t609 + t914;
        const P t1006 = t609 - t914;
        const P t1007 = t1005 + t304;
        io.pair(30, t1007);
        const P t1008 = c[0] * t1005;
        const P t1009 = t304 - t1008;
        const P t1010 = P(-c[1], c[1]) * t1006;
        const P t1011 = shuffled<1, 0>(t1010);
        const P t1012 = t1009 + t1011;
        io.pair(49, t1012);
        const P t1013 = t1009 - t1011;
        io.pair(11, t1013);
        // complex block of 3
        const P t1014 = t543 + t848;
        const P t1015 = t543 - t848;
        const P t1016 = t1014 + t238;
        io.pair(33, t1016);
        const P t1017 = c[0] * t1014;
        const P t1018 = t238 - t1017;
        const P t1019 = P(-c[1], c[1]) * t1015;
        const P t1020 = shuffled<1, 0>(t1019);
        const P t1021 = t1018 + t1020;
        io.pair(52, t1021);
        const P t1022 = t1018 - t1020;
        io.pair(14, t1022);
        // complex block of 3
        const P t1023 = t592 + t897;
        const P t1024 = t592 - t897;
        const P t1025 = t1023 + t287;
        io.pair(36, t1025);
        const P t1026 = c[0] * t1023;
        const P t1027 = t287 - t1026;
        const P t1028 = P(-c[1], c[1]) * t1024;
        const P t1029 = shuffled<1, 0>(t1028);
        const P t1030 = t1027 + t1029;
        io.pair(55, t1030);
        const P t1031 = t1027 - t1029;
        io.pair(17, t1031);
        // complex block of 3
        const P t1032 = t602 + t907;
        const P t1033 = t602 - t907;
        const P t1034 = t1032 + t297;
        io.pair(39, t1034);
        const P t1035 = c[0] * t1032;
        const P t1036 = t297 - t1035;
        const P t1037 = P(-c[1], c[1]) * t1033;
        const P t1038 = shuffled<1, 0>(t1037);
        const P t1039 = t1036 + t1038;
        io.pair(1, t1039);
        const P t1040 = t1036 - t1038;
        io.pair(20, t1040);
        // complex block of 3
        const P t1041 = t594 + t899;
        const P t1042 = t594 - t899;
        const P t1043 = t1041 + t289;
        io.pair(42, t1043);
        const P t1044 = c[0] * t1041;
        const P t1045 = t289 - t1044;
        const P t1046 = P(-c[1], c[1]) * t1042;
        const P t1047 = shuffled<1, 0>(t1046);
        const P t1048 = t1045 + t1047;
        io.pair(4, t1048);
        const P t1049 = t1045 - t1047;
        io.pair(23, t1049);
        // complex block of 3
        const P t1050 = t608 + t913;
        const P t1051 = t608 - t913;
        const P t1052 = t1050 + t303;
        io.pair(45, t1052);
        const P t1053 = c[0] * t1050;
        const P t1054 = t303 - t1053;
        const P t1055 = P(-c[1], c[1]) * t1051;
        const P t1056 = shuffled<1, 0>(t1055);
        const P t1057 = t1054 + t1056;
        io.pair(7, t1057);
        const P t1058 = t1054 - t1056;
        io.pair(26, t1058);
        // complex block of 3
        const P t1059 = t550 + t855;
        const P t1060 = t550 - t855;
        const P t1061 = t1059 + t245;
        io.pair(48, t1061);
        const P t1062 = c[0] * t1059;
        const P t1063 = t245 - t1062;
        const P t1064 = P(-c[1], c[1]) * t1060;
        const P t1065 = shuffled<1, 0>(t1064);
        const P t1066 = t1063 + t1065;
        io.pair(10, t1066);
        const P t1067 = t1063 - t1065;
        io.pair(29, t1067);
        // complex block of 3
        const P t1068 = t551 + t856;
        const P t1069 = t551 - t856;
        const P t1070 = t1068 + t246;
        io.pair(51, t1070);
        const P t1071 = c[0] * t1068;
        const P t1072 = t246 - t1071;
        const P t1073 = P(-c[1], c[1]) * t1069;
        const P t1074 = shuffled<1, 0>(t1073);
        const P t1075 = t1072 + t1074;
        io.pair(13, t1075);
        const P t1076 = t1072 - t1074;
        io.pair(32, t1076);
        // complex block of 3
        const P t1077 = t588 + t893;
        const P t1078 = t588 - t893;
        const P t1079 = t1077 + t283;
        io.pair(54, t1079);
        const P t1080 = c[0] * t1077;
        const P t1081 = t283 - t1080;
        const P t1082 = P(-c[1], c[1]) * t1078;
        const P t1083 = shuffled<1, 0>(t1082);
        const P t1084 = t1081 + t1083;
        io.pair(16, t1084);
        const P t1085 = t1081 - t1083;
        io.pair(35, t1085);
    }
};

}  // namespace zulg
