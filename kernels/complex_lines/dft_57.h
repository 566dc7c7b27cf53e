// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 57.
// Complex DFT of 57 points, prime-factor, order 19, 3; two lines of a stage to a register.
// 215 sums, 195 differences, 212 products of registers, which do the 2170 steps of the graph, those with
// `scale` included; 97 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<57> {
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
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x3_22 = io.pairs(3, 22);
        const Q x54_16 = io.pairs(54, 16);
        // real block of 2
        const Q t0 = x3_22 + x54_16;
        const Q t1 = x3_22 - x54_16;
        const Q x12_31 = io.pairs(12, 31);
        const Q x45_7 = io.pairs(45, 7);
        // real block of 2
        const Q t2 = x12_31 + x45_7;
        const Q t3 = x12_31 - x45_7;
        const Q x48_10 = io.pairs(48, 10);
        const Q x9_28 = io.pairs(9, 28);
        // real block of 2
        const Q t4 = x48_10 + x9_28;
        const Q t5 = x48_10 - x9_28;
        const Q x21_40 = io.pairs(21, 40);
        const Q x36_55 = io.pairs(36, 55);
        // real block of 2
        const Q t6 = x21_40 + x36_55;
        const Q t7 = x21_40 - x36_55;
        const Q x27_46 = io.pairs(27, 46);
        const Q x30_49 = io.pairs(30, 49);
        // real block of 2
        const Q t8 = x27_46 + x30_49;
        const Q t9 = x27_46 - x30_49;
        const Q x51_13 = io.pairs(51, 13);
        const Q x6_25 = io.pairs(6, 25);
        // real block of 2
        const Q t10 = x51_13 + x6_25;
        const Q t11 = x51_13 - x6_25;
        const Q x33_52 = io.pairs(33, 52);
        const Q x24_43 = io.pairs(24, 43);
        // real block of 2
        const Q t12 = x33_52 + x24_43;
        const Q t13 = x33_52 - x24_43;
        const Q x18_37 = io.pairs(18, 37);
        const Q x39_1 = io.pairs(39, 1);
        // real block of 2
        const Q t14 = x18_37 + x39_1;
        const Q t15 = x18_37 - x39_1;
        const Q x15_34 = io.pairs(15, 34);
        const Q x42_4 = io.pairs(42, 4);
        // real block of 2
        const Q t16 = x15_34 + x42_4;
        const Q t17 = x15_34 - x42_4;
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
        // complex block of 19, multiplier 3
        const Q t120 = x0_19 + t35;
        const Q t121 = c[26] * t35;
        const Q t122 = x0_19 - t121;
        const Q t123 = shuffled<1, 0, 3, 2>(t118);
        const Q t124 = c[6] * t123;
        const Q t125 = shuffled<1, 0, 3, 2>(t119);
        const Q t126 = c[7] * t125;
        const Q t127 = t124 + t126;
        const Q t128 = Q(-c[6], c[6], -c[6], c[6]) * t125;
        const Q t129 = Q(c[7], -c[7], c[7], -c[7]) * t123;
        const Q t130 = t128 + t129;
        const Q t131 = c[8] * t58;
        const Q t132 = c[9] * t56;
        const Q t133 = t131 - t132;
        const Q t134 = c[9] * t58;
        const Q t135 = c[8] * t56;
        const Q t136 = t134 + t135;
        const Q t137 = shuffled<1, 0, 3, 2>(t88);
        const Q t138 = c[10] * t137;
        // real block of 3, multiplier 2
        const Q t139 = c[1] * t85;
        const Q t140 = shuffled<1, 0, 3, 2>(t139);
        // complex block of 19, multiplier 3
        const Q t141 = c[11] * t140;
        const Q t142 = t138 + t141;
        const Q t143 = Q(-c[10], c[10], -c[10], c[10]) * t140;
        const Q t144 = Q(c[11], -c[11], c[11], -c[11]) * t137;
        const Q t145 = t143 + t144;
        const Q t146 = c[12] * t64;
        const Q t147 = c[13] * t66;
        const Q t148 = t146 + t147;
        const Q t149 = c[13] * t64;
        const Q t150 = c[12] * t66;
        const Q t151 = t149 - t150;
        const Q t152 = shuffled<1, 0, 3, 2>(t115);
        const Q t153 = c[14] * t152;
        const Q t154 = shuffled<1, 0, 3, 2>(t117);
        const Q t155 = c[15] * t154;
        const Q t156 = t153 + t155;
        const Q t157 = Q(-c[15], c[15], -c[15], c[15]) * t152;
        const Q t158 = Q(c[14], -c[14], c[14], -c[14]) * t154;
        const Q t159 = t157 + t158;
        const Q t160 = c[16] * t37;
        // real block of 3, multiplier 2
        const Q t161 = c[1] * t34;
        // complex block of 19, multiplier 3
        const Q t162 = c[17] * t161;
        const Q t163 = t160 + t162;
        const Q t164 = c[16] * t161;
        const Q t165 = c[17] * t37;
        const Q t166 = t164 - t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t107);
        const Q t168 = c[18] * t167;
        const Q t169 = shuffled<1, 0, 3, 2>(t109);
        const Q t170 = c[19] * t169;
        const Q t171 = t168 + t170;
        const Q t172 = Q(-c[18], c[18], -c[18], c[18]) * t169;
        const Q t173 = Q(c[19], -c[19], c[19], -c[19]) * t167;
        const Q t174 = t172 + t173;
        const Q t175 = c[20] * t67;
        const Q t176 = c[21] * t68;
        const Q t177 = t175 - t176;
        const Q t178 = c[20] * t68;
        const Q t179 = c[21] * t67;
        const Q t180 = t178 + t179;
        const Q t181 = shuffled<1, 0, 3, 2>(t86);
        const Q t182 = Q(-c[27], c[27], -c[27], c[27]) * t181;
        // spectrum block of 2
        const Q t183 = t122 + t182;
        const Q t184 = t122 - t182;
        // complex block of 2
        const Q t185 = t136 + t174;
        const Q t186 = flipped<0, 1, 0, 1>(t171);
        const Q t187 = t133 + t186;
        const Q t188 = t174 - t136;
        const Q t189 = t133 - t186;
        // complex block of 2
        const Q t190 = t151 - t159;
        const Q t191 = flipped<0, 1, 0, 1>(t156);
        const Q t192 = t148 + t191;
        const Q t193 = t151 + t159;
        const Q t194 = t148 - t191;
        // complex block of 2
        const Q t195 = t166 - t145;
        const Q t196 = flipped<0, 1, 0, 1>(t142);
        const Q t197 = t163 + t196;
        const Q t198 = t166 + t145;
        const Q t199 = t163 - t196;
        // complex block of 2
        const Q t200 = t180 - t130;
        const Q t201 = flipped<0, 1, 0, 1>(t127);
        const Q t202 = t177 + t201;
        const Q t203 = t180 + t130;
        const Q t204 = t177 - t201;
        // spectrum block of 3, multiplier 2
        const Q t205 = t197 + t183;
        const Q t206 = c[0] * t197;
        const Q t207 = t183 - t206;
        const Q t208 = c[1] * t195;
        const Q t209 = t207 - t208;
        const Q t210 = t207 + t208;
        // complex block of 3, multiplier 2
        const Q t211 = t200 - t190;
        const Q t212 = t202 + t192;
        const Q t213 = t200 + t190;
        const Q t214 = t202 - t192;
        const Q t215 = t211 - t185;
        const Q t216 = t212 + t187;
        const Q t217 = c[0] * t211;
        const Q t218 = t185 + t217;
        const Q t219 = c[0] * t212;
        const Q t220 = t187 - t219;
        const Q t221 = c[1] * t214;
        const Q t222 = t221 - t218;
        const Q t223 = c[1] * t213;
        const Q t224 = t220 - t223;
        const Q t225 = t218 + t221;
        const Q t226 = t220 + t223;
        // spectrum block of 9, multiplier 2
        const Q t227 = c[2] * t226;
        const Q t228 = c[3] * t225;
        const Q t229 = t227 + t228;
        const Q t230 = c[5] * t224;
        const Q t231 = c[4] * t222;
        const Q t232 = t230 + t231;
        // spectrum block of 3, multiplier 2
        const Q t233 = t216 + t205;
        const Q t234 = c[0] * t216;
        const Q t235 = t205 - t234;
        const Q t236 = c[1] * t215;
        const Q t237 = t235 - t236;
        const Q t238 = t235 + t236;
        // spectrum block of 3, multiplier 2
        const Q t239 = t229 + t210;
        const Q t240 = c[0] * t229;
        const Q t241 = t210 - t240;
        const Q t242 = c[22] * t226;
        const Q t243 = c[23] * t225;
        const Q t244 = t242 - t243;
        const Q t245 = t241 - t244;
        const Q t246 = t241 + t244;
        // spectrum block of 3, multiplier 2
        const Q t247 = t209 - t232;
        const Q t248 = c[0] * t232;
        const Q t249 = t248 + t209;
        const Q t250 = c[24] * t224;
        const Q t251 = c[25] * t222;
        const Q t252 = t250 - t251;
        const Q t253 = t249 - t252;
        const Q t254 = t249 + t252;
        // spectrum block of 3, multiplier 2
        const Q t255 = t199 + t184;
        const Q t256 = c[0] * t199;
        const Q t257 = t184 - t256;
        const Q t258 = c[1] * t198;
        const Q t259 = t257 - t258;
        const Q t260 = t257 + t258;
        // complex block of 3, multiplier 2
        const Q t261 = t203 - t193;
        const Q t262 = t204 + t194;
        const Q t263 = t203 + t193;
        const Q t264 = t204 - t194;
        const Q t265 = t261 + t188;
        const Q t266 = t262 + t189;
        const Q t267 = c[0] * t261;
        const Q t268 = t188 - t267;
        const Q t269 = c[0] * t262;
        const Q t270 = t189 - t269;
        const Q t271 = c[1] * t264;
        const Q t272 = t268 + t271;
        const Q t273 = c[1] * t263;
        const Q t274 = t270 - t273;
        const Q t275 = t268 - t271;
        const Q t276 = t270 + t273;
        // spectrum block of 9, multiplier 2
        const Q t277 = c[2] * t276;
        const Q t278 = c[3] * t275;
        const Q t279 = t277 - t278;
        const Q t280 = c[5] * t274;
        const Q t281 = c[4] * t272;
        const Q t282 = t280 + t281;
        // spectrum block of 3, multiplier 2
        const Q t283 = t266 + t255;
        const Q t284 = c[0] * t266;
        const Q t285 = t255 - t284;
        const Q t286 = c[1] * t265;
        const Q t287 = t285 - t286;
        const Q t288 = t285 + t286;
        // spectrum block of 3, multiplier 2
        const Q t289 = t279 + t260;
        const Q t290 = c[0] * t279;
        const Q t291 = t260 - t290;
        const Q t292 = c[23] * t275;
        const Q t293 = c[22] * t276;
        const Q t294 = t292 + t293;
        const Q t295 = t291 - t294;
        const Q t296 = t291 + t294;
        // spectrum block of 3, multiplier 2
        const Q t297 = t259 - t282;
        const Q t298 = c[0] * t282;
        const Q t299 = t298 + t259;
        const Q t300 = c[24] * t274;
        const Q t301 = c[25] * t272;
        const Q t302 = t300 - t301;
        const Q t303 = t299 - t302;
        const Q t304 = t299 + t302;
        const P x41 = io.pair(41);
        const P x35 = io.pair(35);
        // real block of 2
        const P t305 = x41 + x35;
        const P t306 = x41 - x35;
        const P x50 = io.pair(50);
        const P x26 = io.pair(26);
        // real block of 2
        const P t307 = x50 + x26;
        const P t308 = x50 - x26;
        const P x29 = io.pair(29);
        const P x47 = io.pair(47);
        // real block of 2
        const P t309 = x29 + x47;
        const P t310 = x29 - x47;
        const P x2 = io.pair(2);
        const P x17 = io.pair(17);
        // real block of 2
        const P t311 = x2 + x17;
        const P t312 = x2 - x17;
        const P x8 = io.pair(8);
        const P x11 = io.pair(11);
        // real block of 2
        const P t313 = x8 + x11;
        const P t314 = x8 - x11;
        const P x32 = io.pair(32);
        const P x44 = io.pair(44);
        // real block of 2
        const P t315 = x32 + x44;
        const P t316 = x32 - x44;
        const P x14 = io.pair(14);
        const P x5 = io.pair(5);
        // real block of 2
        const P t317 = x14 + x5;
        const P t318 = x14 - x5;
        const P x56 = io.pair(56);
        const P x20 = io.pair(20);
        // real block of 2
        const P t319 = x56 + x20;
        const P t320 = x56 - x20;
        const P x53 = io.pair(53);
        const P x23 = io.pair(23);
        // real block of 2
        const P t321 = x53 + x23;
        const P t322 = x53 - x23;
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
        // real block of 3, multiplier 2
        const P t343 = c[1] * t329;
        const Q t344 = joined(t332, t343);
        // real block of 9, multiplier 2
        const Q t345 = c[2] * t344;
        const Q t346 = shuffled<2, 3, 0, 1>(t344);
        const Q t347 = Q(c[3], c[3], -c[3], -c[3]) * t346;
        const Q t348 = t345 + t347;
        // real block of 3, multiplier 2
        const P t349 = c[1] * t334;
        const Q t350 = joined(t349, t349);
        // real block of 9, multiplier 2
        const Q t351 = Q(c[4], c[4], c[5], c[5]) * t350;
        const Q t352 = joined(t337, t337);
        const Q t353 = Q(-c[5], -c[5], c[4], c[4]) * t352;
        const Q t354 = t351 + t353;
        const P t355 = part<0>(t348);
        const P t356 = part<0>(t354);
        // complex block of 3, multiplier 2
        const P t357 = t355 + t356;
        const P t358 = part<1>(t348);
        const P t359 = part<1>(t354);
        const P t360 = t358 - t359;
        const P t361 = t355 - t356;
        const P t362 = t358 + t359;
        const P t363 = t357 + t327;
        // real block of 3, multiplier 2
        const P t364 = c[1] * t324;
        // complex block of 3, multiplier 2
        const P t365 = t360 + t364;
        const P t366 = c[0] * t357;
        const P t367 = t327 - t366;
        const P t368 = c[0] * t360;
        const P t369 = t364 - t368;
        const P t370 = c[1] * t362;
        const P t371 = t367 + t370;
        const P t372 = c[1] * t361;
        const P t373 = t369 - t372;
        const P t374 = t367 - t370;
        const P t375 = t369 + t372;
        // real block of 3, multiplier 2
        const P t376 = t312 + t318;
        const P t377 = t312 - t318;
        const P t378 = t376 + t306;
        const P t379 = c[0] * t376;
        const P t380 = t306 - t379;
        // real block of 3, multiplier 2
        const P t381 = t314 + t320;
        const P t382 = t314 - t320;
        const P t383 = t381 + t308;
        const P t384 = c[0] * t381;
        const P t385 = t308 - t384;
        // real block of 3, multiplier 2
        const P t386 = t316 + t322;
        const P t387 = t316 - t322;
        const P t388 = t386 + t310;
        const P t389 = c[0] * t386;
        const P t390 = t310 - t389;
        // real block of 3, multiplier 2
        const P t391 = t383 + t388;
        const P t392 = t383 - t388;
        const P t393 = t391 + t378;
        const P t394 = c[0] * t391;
        const P t395 = t378 - t394;
        // real block of 3, multiplier 2
        const P t396 = c[1] * t382;
        const Q t397 = joined(t385, t396);
        // real block of 9, multiplier 2
        const Q t398 = c[2] * t397;
        const Q t399 = shuffled<2, 3, 0, 1>(t397);
        const Q t400 = Q(c[3], c[3], -c[3], -c[3]) * t399;
        const Q t401 = t398 + t400;
        // real block of 3, multiplier 2
        const P t402 = c[1] * t387;
        const Q t403 = joined(t402, t402);
        // real block of 9, multiplier 2
        const Q t404 = Q(c[4], c[4], c[5], c[5]) * t403;
        const Q t405 = joined(t390, t390);
        const Q t406 = Q(-c[5], -c[5], c[4], c[4]) * t405;
        const Q t407 = t404 + t406;
        const P t408 = part<0>(t401);
        const P t409 = part<0>(t407);
        // complex block of 3, multiplier 2
        const P t410 = t408 + t409;
        const P t411 = part<1>(t401);
        const P t412 = part<1>(t407);
        const P t413 = t411 - t412;
        const P t414 = t408 - t409;
        const P t415 = t411 + t412;
        const P t416 = t410 + t380;
        // real block of 3, multiplier 2
        const P t417 = c[1] * t377;
        // complex block of 3, multiplier 2
        const P t418 = t413 + t417;
        const P t419 = c[0] * t410;
        const P t420 = t380 - t419;
        const P t421 = c[0] * t413;
        const P t422 = t417 - t421;
        const P t423 = c[1] * t415;
        const P t424 = t420 + t423;
        const P t425 = c[1] * t414;
        const P t426 = t422 - t425;
        const P t427 = t420 - t423;
        const P t428 = t422 + t425;
        const P x38 = io.pair(38);
        // complex block of 19, multiplier 3
        const P t429 = x38 + t340;
        const P t430 = c[26] * t340;
        const P t431 = x38 - t430;
        const Q t432 = joined(t428, t428);
        const Q t433 = shuffled<1, 0, 3, 2>(t432);
        const Q t434 = Q(c[7], c[7], -c[6], c[6]) * t433;
        const Q t435 = joined(t427, t427);
        const Q t436 = shuffled<1, 0, 3, 2>(t435);
        const Q t437 = Q(c[6], c[6], c[7], -c[7]) * t436;
        const Q t438 = t434 + t437;
        const Q t439 = joined(t365, t365);
        const Q t440 = Q(c[8], c[8], c[9], c[9]) * t439;
        const Q t441 = joined(t363, t363);
        const Q t442 = Q(-c[9], -c[9], c[8], c[8]) * t441;
        const Q t443 = t440 + t442;
        // real block of 3, multiplier 2
        const P t444 = c[1] * t392;
        const Q t445 = joined(t444, t444);
        const Q t446 = shuffled<1, 0, 3, 2>(t445);
        // complex block of 19, multiplier 3
        const Q t447 = Q(c[11], c[11], -c[10], c[10]) * t446;
        const Q t448 = joined(t395, t395);
        const Q t449 = shuffled<1, 0, 3, 2>(t448);
        const Q t450 = Q(c[10], c[10], c[11], -c[11]) * t449;
        const Q t451 = t447 + t450;
        const Q t452 = joined(t371, t371);
        const Q t453 = Q(c[12], c[12], c[13], c[13]) * t452;
        const Q t454 = joined(t373, t373);
        const Q t455 = Q(c[13], c[13], -c[12], -c[12]) * t454;
        const Q t456 = t453 + t455;
        const Q t457 = joined(t426, t424);
        const Q t458 = shuffled<1, 0, 3, 2>(t457);
        const Q t459 = Q(c[15], c[15], -c[15], c[15]) * t458;
        const Q t460 = shuffled<2, 3, 0, 1>(t458);
        const Q t461 = Q(c[14], c[14], c[14], -c[14]) * t460;
        const Q t462 = t459 + t461;
        // real block of 3, multiplier 2
        const P t463 = c[1] * t339;
        const Q t464 = joined(t342, t463);
        // complex block of 19, multiplier 3
        const Q t465 = c[16] * t464;
        const Q t466 = shuffled<2, 3, 0, 1>(t464);
        const Q t467 = Q(c[17], c[17], -c[17], -c[17]) * t466;
        const Q t468 = t465 + t467;
        const Q t469 = joined(t418, t418);
        const Q t470 = shuffled<1, 0, 3, 2>(t469);
        const Q t471 = Q(c[19], c[19], -c[18], c[18]) * t470;
        const Q t472 = joined(t416, t416);
        const Q t473 = shuffled<1, 0, 3, 2>(t472);
        const Q t474 = Q(c[18], c[18], c[19], -c[19]) * t473;
        const Q t475 = t471 + t474;
        const Q t476 = joined(t374, t375);
        const Q t477 = c[20] * t476;
        const Q t478 = shuffled<2, 3, 0, 1>(t476);
        const Q t479 = Q(-c[21], -c[21], c[21], c[21]) * t478;
        const Q t480 = t477 + t479;
        const P t481 = shuffled<1, 0>(t393);
        const P t482 = P(-c[27], c[27]) * t481;
        // spectrum block of 2
        const P t483 = t431 + t482;
        const P t484 = t431 - t482;
        const P t485 = part<1>(t443);
        const P t486 = part<1>(t475);
        // complex block of 2
        const P t487 = t485 + t486;
        const P t488 = part<0>(t443);
        const P t489 = part<0>(t475);
        const P t490 = flipped<0, 1>(t489);
        const P t491 = t488 + t490;
        const P t492 = t486 - t485;
        const P t493 = t488 - t490;
        const P t494 = part<1>(t456);
        const P t495 = part<1>(t462);
        // complex block of 2
        const P t496 = t494 - t495;
        const P t497 = part<0>(t456);
        const P t498 = part<0>(t462);
        const P t499 = flipped<0, 1>(t498);
        const P t500 = t497 + t499;
        const P t501 = t494 + t495;
        const P t502 = t497 - t499;
        const P t503 = part<1>(t468);
        const P t504 = part<1>(t451);
        // complex block of 2
        const P t505 = t503 - t504;
        const P t506 = part<0>(t468);
        const P t507 = part<0>(t451);
        const P t508 = flipped<0, 1>(t507);
        const P t509 = t506 + t508;
        const P t510 = t503 + t504;
        const P t511 = t506 - t508;
        const P t512 = part<1>(t480);
        const P t513 = part<1>(t438);
        // complex block of 2
        const P t514 = t512 - t513;
        const P t515 = part<0>(t480);
        const P t516 = part<0>(t438);
        const P t517 = flipped<0, 1>(t516);
        const P t518 = t515 + t517;
        const P t519 = t512 + t513;
        const P t520 = t515 - t517;
        // spectrum block of 3, multiplier 2
        const P t521 = t509 + t483;
        const P t522 = c[0] * t509;
        const P t523 = t483 - t522;
        const P t524 = c[1] * t505;
        const P t525 = t523 - t524;
        const P t526 = t523 + t524;
        // complex block of 3, multiplier 2
        const P t527 = t514 - t496;
        const P t528 = t518 + t500;
        const P t529 = t514 + t496;
        const P t530 = t518 - t500;
        const P t531 = t527 - t487;
        const P t532 = t528 + t491;
        const P t533 = c[0] * t527;
        const P t534 = t487 + t533;
        const P t535 = c[0] * t528;
        const P t536 = t491 - t535;
        const P t537 = c[1] * t530;
        const P t538 = t537 - t534;
        const P t539 = c[1] * t529;
        const P t540 = t536 - t539;
        const P t541 = t534 + t537;
        const P t542 = t536 + t539;
        const Q t543 = joined(t542, t540);
        // spectrum block of 9, multiplier 2
        const Q t544 = Q(c[2], c[2], c[5], c[5]) * t543;
        const Q t545 = joined(t541, t538);
        const Q t546 = Q(c[3], c[3], c[4], c[4]) * t545;
        const Q t547 = t544 + t546;
        // spectrum block of 3, multiplier 2
        const P t548 = t532 + t521;
        const P t549 = c[0] * t532;
        const P t550 = t521 - t549;
        const P t551 = c[1] * t531;
        const P t552 = t550 - t551;
        const P t553 = t550 + t551;
        const P t554 = part<0>(t547);
        // spectrum block of 3, multiplier 2
        const P t555 = t554 + t526;
        const P t556 = c[0] * t554;
        const P t557 = t526 - t556;
        const P t558 = c[22] * t542;
        const P t559 = c[23] * t541;
        const P t560 = t558 - t559;
        const P t561 = t557 - t560;
        const P t562 = t557 + t560;
        const P t563 = part<1>(t547);
        // spectrum block of 3, multiplier 2
        const P t564 = t525 - t563;
        const P t565 = c[0] * t563;
        const P t566 = t565 + t525;
        const P t567 = c[24] * t540;
        const P t568 = c[25] * t538;
        const P t569 = t567 - t568;
        const P t570 = t566 - t569;
        const P t571 = t566 + t569;
        // spectrum block of 3, multiplier 2
        const P t572 = t511 + t484;
        const P t573 = c[0] * t511;
        const P t574 = t484 - t573;
        const P t575 = c[1] * t510;
        const P t576 = t574 - t575;
        const P t577 = t574 + t575;
        // complex block of 3, multiplier 2
        const P t578 = t519 - t501;
        const P t579 = t520 + t502;
        const P t580 = t519 + t501;
        const P t581 = t520 - t502;
        const P t582 = t578 + t492;
        const P t583 = t579 + t493;
        const P t584 = c[0] * t578;
        const P t585 = t492 - t584;
        const P t586 = c[0] * t579;
        const P t587 = t493 - t586;
        const P t588 = c[1] * t581;
        const P t589 = t585 + t588;
        const P t590 = c[1] * t580;
        const P t591 = t587 - t590;
        const P t592 = t585 - t588;
        const P t593 = t587 + t590;
        const Q t594 = joined(t593, t591);
        // spectrum block of 9, multiplier 2
        const Q t595 = Q(c[2], c[2], c[5], c[5]) * t594;
        const Q t596 = joined(t592, t589);
        const Q t597 = Q(-c[3], -c[3], c[4], c[4]) * t596;
        const Q t598 = t595 + t597;
        // spectrum block of 3, multiplier 2
        const P t599 = t583 + t572;
        const P t600 = c[0] * t583;
        const P t601 = t572 - t600;
        const P t602 = c[1] * t582;
        const P t603 = t601 - t602;
        const P t604 = t601 + t602;
        const P t605 = part<0>(t598);
        // spectrum block of 3, multiplier 2
        const P t606 = t605 + t577;
        const P t607 = c[0] * t605;
        const P t608 = t577 - t607;
        const P t609 = c[23] * t592;
        const P t610 = c[22] * t593;
        const P t611 = t609 + t610;
        const P t612 = t608 - t611;
        const P t613 = t608 + t611;
        const P t614 = part<1>(t598);
        // spectrum block of 3, multiplier 2
        const P t615 = t576 - t614;
        const P t616 = c[0] * t614;
        const P t617 = t616 + t576;
        const P t618 = c[24] * t591;
        const P t619 = c[25] * t589;
        const P t620 = t618 - t619;
        const P t621 = t617 - t620;
        const P t622 = t617 + t620;
        const Q t623 = shuffled<2, 3, 6, 7>(t120, t233);
        const Q t624 = joined(t429, t548);
        // complex block of 3
        const Q t625 = t623 + t624;
        const Q t626 = t623 - t624;
        const Q t627 = shuffled<0, 1, 4, 5>(t120, t233);
        const Q t628 = t625 + t627;
        io.pairs(0, 3, t628);
        const Q t629 = c[0] * t625;
        const Q t630 = t627 - t629;
        const Q t631 = Q(-c[1], c[1], -c[1], c[1]) * t626;
        const Q t632 = shuffled<1, 0, 3, 2>(t631);
        const Q t633 = t630 + t632;
        io.pairs(19, 22, t633);
        const Q t634 = t630 - t632;
        io.pairs(38, 41, t634);
        const Q t635 = shuffled<2, 3, 6, 7>(t296, t295);
        const Q t636 = joined(t613, t612);
        // complex block of 3
        const Q t637 = t635 + t636;
        const Q t638 = t635 - t636;
        const Q t639 = shuffled<0, 1, 4, 5>(t296, t295);
        const Q t640 = t637 + t639;
        io.pairs(6, 9, t640);
        const Q t641 = c[0] * t637;
        const Q t642 = t639 - t641;
        const Q t643 = Q(-c[1], c[1], -c[1], c[1]) * t638;
        const Q t644 = shuffled<1, 0, 3, 2>(t643);
        const Q t645 = t642 + t644;
        io.pairs(25, 28, t645);
        const Q t646 = t642 - t644;
        io.pairs(44, 47, t646);
        const Q t647 = shuffled<2, 3, 6, 7>(t253, t239);
        const Q t648 = joined(t570, t555);
        // complex block of 3
        const Q t649 = t647 + t648;
        const Q t650 = t647 - t648;
        const Q t651 = shuffled<0, 1, 4, 5>(t253, t239);
        const Q t652 = t649 + t651;
        io.pairs(12, 15, t652);
        const Q t653 = c[0] * t649;
        const Q t654 = t651 - t653;
        const Q t655 = Q(-c[1], c[1], -c[1], c[1]) * t650;
        const Q t656 = shuffled<1, 0, 3, 2>(t655);
        const Q t657 = t654 + t656;
        io.pairs(31, 34, t657);
        const Q t658 = t654 - t656;
        io.pairs(50, 53, t658);
        const Q t659 = shuffled<2, 3, 6, 7>(t247, t237);
        const Q t660 = joined(t564, t552);
        // complex block of 3
        const Q t661 = t659 + t660;
        const Q t662 = t659 - t660;
        const Q t663 = shuffled<0, 1, 4, 5>(t247, t237);
        const Q t664 = t661 + t663;
        io.pairs(18, 21, t664);
        const Q t665 = c[0] * t661;
        const Q t666 = t663 - t665;
        const Q t667 = Q(-c[1], c[1], -c[1], c[1]) * t662;
        const Q t668 = shuffled<1, 0, 3, 2>(t667);
        const Q t669 = t666 + t668;
        io.pairs(37, 40, t669);
        const Q t670 = t666 - t668;
        io.pairs(56, 2, t670);
        const Q t671 = shuffled<2, 3, 6, 7>(t288, t254);
        const Q t672 = joined(t604, t571);
        // complex block of 3
        const Q t673 = t671 + t672;
        const Q t674 = t671 - t672;
        const Q t675 = shuffled<0, 1, 4, 5>(t288, t254);
        const Q t676 = t673 + t675;
        io.pairs(24, 27, t676);
        const Q t677 = c[0] * t673;
        const Q t678 = t675 - t677;
        const Q t679 = Q(-c[1], c[1], -c[1], c[1]) * t674;
        const Q t680 = shuffled<1, 0, 3, 2>(t679);
        const Q t681 = t678 + t680;
        io.pairs(43, 46, t681);
        const Q t682 = t678 - t680;
        io.pairs(5, 8, t682);
        const Q t683 = shuffled<2, 3, 6, 7>(t304, t238);
        const Q t684 = joined(t622, t553);
        // complex block of 3
        const Q t685 = t683 + t684;
        const Q t686 = t683 - t684;
        const Q t687 = shuffled<0, 1, 4, 5>(t304, t238);
        const Q t688 = t685 + t687;
        io.pairs(30, 33, t688);
        const Q t689 = c[0] * t685;
        const Q t690 = t687 - t689;
        const Q t691 = Q(-c[1], c[1], -c[1], c[1]) * t686;
        const Q t692 = shuffled<1, 0, 3, 2>(t691);
        const Q t693 = t690 + t692;
        io.pairs(49, 52, t693);
        const Q t694 = t690 - t692;
        io.pairs(11, 14, t694);
        const Q t695 = shuffled<2, 3, 6, 7>(t287, t297);
        const Q t696 = joined(t603, t615);
        // complex block of 3
        const Q t697 = t695 + t696;
        const Q t698 = t695 - t696;
        const Q t699 = shuffled<0, 1, 4, 5>(t287, t297);
        const Q t700 = t697 + t699;
        io.pairs(36, 39, t700);
        const Q t701 = c[0] * t697;
        const Q t702 = t699 - t701;
        const Q t703 = Q(-c[1], c[1], -c[1], c[1]) * t698;
        const Q t704 = shuffled<1, 0, 3, 2>(t703);
        const Q t705 = t702 + t704;
        io.pairs(55, 1, t705);
        const Q t706 = t702 - t704;
        io.pairs(17, 20, t706);
        const Q t707 = shuffled<2, 3, 6, 7>(t289, t303);
        const Q t708 = joined(t606, t621);
        // complex block of 3
        const Q t709 = t707 + t708;
        const Q t710 = t707 - t708;
        const Q t711 = shuffled<0, 1, 4, 5>(t289, t303);
        const Q t712 = t709 + t711;
        io.pairs(42, 45, t712);
        const Q t713 = c[0] * t709;
        const Q t714 = t711 - t713;
        const Q t715 = Q(-c[1], c[1], -c[1], c[1]) * t710;
        const Q t716 = shuffled<1, 0, 3, 2>(t715);
        const Q t717 = t714 + t716;
        io.pairs(4, 7, t717);
        const Q t718 = t714 - t716;
        io.pairs(23, 26, t718);
        const Q t719 = shuffled<2, 3, 6, 7>(t245, t246);
        const Q t720 = joined(t561, t562);
        // complex block of 3
        const Q t721 = t719 + t720;
        const Q t722 = t719 - t720;
        const Q t723 = shuffled<0, 1, 4, 5>(t245, t246);
        const Q t724 = t721 + t723;
        io.pairs(48, 51, t724);
        const Q t725 = c[0] * t721;
        const Q t726 = t723 - t725;
        const Q t727 = Q(-c[1], c[1], -c[1], c[1]) * t722;
        const Q t728 = shuffled<1, 0, 3, 2>(t727);
        const Q t729 = t726 + t728;
        io.pairs(10, 13, t729);
        const Q t730 = t726 - t728;
        io.pairs(29, 32, t730);
        const P t731 = part<1>(t283);
        // complex block of 3
        const P t732 = t731 + t599;
        const P t733 = t731 - t599;
        const P t734 = part<0>(t283);
        const P t735 = t732 + t734;
        io.pair(54, t735);
        const P t736 = c[0] * t732;
        const P t737 = t734 - t736;
        const P t738 = P(-c[1], c[1]) * t733;
        const P t739 = shuffled<1, 0>(t738);
        const P t740 = t737 + t739;
        io.pair(16, t740);
        const P t741 = t737 - t739;
        io.pair(35, t741);
    }
};

}  // namespace zulg
