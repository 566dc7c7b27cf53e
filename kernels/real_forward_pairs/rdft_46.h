// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 46.
// Forward DFT of 46 real points, prime-factor 2, 23; two lanes to a register.
// 171 sums, 153 differences, 242 products of registers, which do the 1176 steps of the graph, those with
// `scale` included; 46 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<46> {
    static constexpr int steps = 1176;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.41541501300188644,  // c[4]: cos 2 pi 2/11
        0.6548607339452851,  // c[5]: -cos 2 pi 18/11
        0.9594929736144974,  // c[6]: -cos 2 pi 6/11
        0.14231483827328514,  // c[7]: -cos 2 pi 8/11
        0.8412535328311812,  // c[8]: cos 2 pi 12/11
        0.7557495743542583,  // c[9]: -sin 2 pi 18/11
        0.28173255684142967,  // c[10]: -sin 2 pi 6/11
        0.9898214418809327,  // c[11]: -sin 2 pi 8/11
        0.9096319953545183,  // c[12]: sin 2 pi 2/11
        0.5406408174555976,  // c[13]: sin 2 pi 12/11
        0.635213297150478,  // c[14]: -Q[1] of 11
        0.19106037559687397,  // c[15]: -P[1] of 11
        0.5272211128649671,  // c[16]: P[2] of 11
        0.4025393125514894,  // c[17]: Q[2] of 11
        0.4262349587304204,  // c[18]: Q[3] of 11
        0.5082556049431003,  // c[19]: -P[3] of 11
        0.41403241996621415,  // c[20]: P[4] of 11
        0.5182443007085755,  // c[21]: Q[4] of 11
        0.17418154463549565,  // c[22]: -P[1] of 23
        0.39967916400094217,  // c[23]: -Q[1] of 23
        0.4130101145562366,  // c[24]: P[2] of 23
        0.1396613400420585,  // c[25]: Q[2] of 23
        0.2936565344532715,  // c[26]: P[3] of 23
        0.3222553093449257,  // c[27]: -Q[3] of 23
        0.07284077652875139,  // c[28]: -P[4] of 23
        0.42985679697172136,  // c[29]: -Q[4] of 23
        0.4166015292602189,  // c[30]: -P[5] of 23
        0.12855275355334153,  // c[31]: -Q[5] of 23
        0.3397700700904962,  // c[32]: -Q[6] of 23
        0.2732012886111602,  // c[33]: -P[6] of 23
        0.1863662746045921,  // c[34]: P[7] of 23
        0.3941449686576057,  // c[35]: Q[7] of 23
        0.4322477411542684,  // c[36]: P[8] of 23
        0.05696081894716527,  // c[37]: Q[8] of 23
        0.15475065017493012,  // c[38]: Q[9] of 23
        0.4075964682115579,  // c[39]: -P[9] of 23
        0.4006581594304406,  // c[40]: P[10] of 23
        0.1719176660785936,  // c[41]: Q[10] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: -beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_2 = io.in(0, 2);
        const P x23_25 = io.in(23, 25);
        // real block of 2
        const P t0 = x0_2 + x23_25;
        const P t1 = x0_2 - x23_25;
        const P x4_6 = io.in(4, 6);
        const P x27_29 = io.in(27, 29);
        // real block of 2
        const P t2 = x4_6 + x27_29;
        const P t3 = x4_6 - x27_29;
        const P x8_10 = io.in(8, 10);
        const P x31_33 = io.in(31, 33);
        // real block of 2
        const P t4 = x8_10 + x31_33;
        const P t5 = x8_10 - x31_33;
        const P x12_14 = io.in(12, 14);
        const P x35_37 = io.in(35, 37);
        // real block of 2
        const P t6 = x12_14 + x35_37;
        const P t7 = x12_14 - x35_37;
        const P x16_18 = io.in(16, 18);
        const P x39_41 = io.in(39, 41);
        // real block of 2
        const P t8 = x16_18 + x39_41;
        const P t9 = x16_18 - x39_41;
        const P x20_22 = io.in(20, 22);
        const P x43_45 = io.in(43, 45);
        // real block of 2
        const P t10 = x20_22 + x43_45;
        const P t11 = x20_22 - x43_45;
        const P x24_26 = io.in(24, 26);
        const P x1_3 = io.in(1, 3);
        // real block of 2
        const P t12 = x24_26 + x1_3;
        const P t13 = x24_26 - x1_3;
        const P x28_30 = io.in(28, 30);
        const P x5_7 = io.in(5, 7);
        // real block of 2
        const P t14 = x28_30 + x5_7;
        const P t15 = x28_30 - x5_7;
        const P x32_34 = io.in(32, 34);
        const P x9_11 = io.in(9, 11);
        // real block of 2
        const P t16 = x32_34 + x9_11;
        const P t17 = x32_34 - x9_11;
        const P x36_38 = io.in(36, 38);
        const P x13_15 = io.in(13, 15);
        // real block of 2
        const P t18 = x36_38 + x13_15;
        const P t19 = x36_38 - x13_15;
        const P x40_42 = io.in(40, 42);
        const P x17_19 = io.in(17, 19);
        // real block of 2
        const P t20 = x40_42 + x17_19;
        const P t21 = x40_42 - x17_19;
        const V x44 = io.in(44);
        const V x21 = io.in(21);
        // real block of 2
        const V t22 = x44 + x21;
        const V t23 = x44 - x21;
        const P t24 = shuffled<1, 3>(t0, t1);
        const P t25 = joined(t22, t23);
        // real block of 2
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        const P t28 = shuffled<0, 2>(t2, t3);
        const P t29 = shuffled<1, 3>(t20, t21);
        // real block of 2
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        const P t32 = shuffled<0, 2>(t4, t5);
        const P t33 = shuffled<1, 3>(t18, t19);
        // real block of 2
        const P t34 = t32 + t33;
        const P t35 = t32 - t33;
        const P t36 = shuffled<0, 2>(t8, t9);
        const P t37 = shuffled<1, 3>(t14, t15);
        // real block of 2
        const P t38 = t36 + t37;
        const P t39 = t36 - t37;
        const P t40 = shuffled<0, 2>(t16, t17);
        const P t41 = shuffled<1, 3>(t6, t7);
        // real block of 2
        const P t42 = t40 + t41;
        const P t43 = t40 - t41;
        const P t44 = shuffled<1, 3>(t8, t9);
        const P t45 = shuffled<0, 2>(t14, t15);
        // real block of 2
        const P t46 = t44 + t45;
        const P t47 = t44 - t45;
        const P t48 = shuffled<0, 2>(t18, t19);
        const P t49 = shuffled<1, 3>(t4, t5);
        // real block of 2
        const P t50 = t48 + t49;
        const P t51 = t48 - t49;
        const P t52 = shuffled<1, 3>(t12, t13);
        const P t53 = shuffled<0, 2>(t10, t11);
        // real block of 2
        const P t54 = t52 + t53;
        const P t55 = t52 - t53;
        const P t56 = shuffled<1, 3>(t2, t3);
        const P t57 = shuffled<0, 2>(t20, t21);
        // real block of 2
        const P t58 = t56 + t57;
        const P t59 = t56 - t57;
        const P t60 = shuffled<0, 2>(t6, t7);
        const P t61 = shuffled<1, 3>(t16, t17);
        // real block of 2
        const P t62 = t60 + t61;
        const P t63 = t60 - t61;
        const P t64 = shuffled<0, 2>(t12, t13);
        const P t65 = shuffled<1, 3>(t10, t11);
        // real block of 2
        const P t66 = t64 + t65;
        const P t67 = t64 - t65;
        // real block of 11, multiplier 2
        const P t68 = t30 + t66;
        const P t69 = t30 - t66;
        const P t70 = t62 + t34;
        const P t71 = t62 - t34;
        const P t72 = t38 + t58;
        const P t73 = t38 - t58;
        const P t74 = t42 + t54;
        const P t75 = t42 - t54;
        const P t76 = t50 + t46;
        const P t77 = t50 - t46;
        const P t78 = t68 + t70;
        const P t79 = t78 + t72;
        const P t80 = t79 + t74;
        const P t81 = t80 + t76;
        const P t82 = t81 + t26;
        const P t83 = c[4] * t68;
        const P t84 = c[5] * t70;
        const P t85 = t83 - t84;
        const P t86 = c[6] * t72;
        const P t87 = t85 - t86;
        const P t88 = c[7] * t74;
        const P t89 = t87 - t88;
        const P t90 = c[8] * t76;
        const P t91 = t89 + t90;
        const P t92 = t91 + t26;
        const P t93 = c[9] * t71;
        const P t94 = c[10] * t73;
        const P t95 = t93 + t94;
        const P t96 = c[11] * t75;
        const P t97 = t95 + t96;
        const P t98 = c[12] * t69;
        const P t99 = t97 - t98;
        const P t100 = c[13] * t77;
        const P t101 = t99 - t100;
        const P t102 = c[5] * t68;
        const P t103 = t26 - t102;
        const P t104 = c[7] * t70;
        const P t105 = t103 - t104;
        const P t106 = c[8] * t72;
        const P t107 = t105 + t106;
        const P t108 = c[6] * t74;
        const P t109 = t107 - t108;
        const P t110 = c[4] * t76;
        const P t111 = t109 + t110;
        const P t112 = c[9] * t69;
        const P t113 = c[11] * t71;
        const P t114 = t112 + t113;
        const P t115 = c[13] * t73;
        const P t116 = t114 + t115;
        const P t117 = c[10] * t75;
        const P t118 = t116 + t117;
        const P t119 = c[12] * t77;
        const P t120 = t118 + t119;
        const P t121 = c[6] * t68;
        const P t122 = t26 - t121;
        const P t123 = c[8] * t70;
        const P t124 = t122 + t123;
        const P t125 = c[5] * t72;
        const P t126 = t124 - t125;
        const P t127 = c[4] * t74;
        const P t128 = t126 + t127;
        const P t129 = c[7] * t76;
        const P t130 = t128 - t129;
        const P t131 = c[10] * t69;
        const P t132 = c[13] * t71;
        const P t133 = t131 + t132;
        const P t134 = c[9] * t73;
        const P t135 = t133 + t134;
        const P t136 = c[12] * t75;
        const P t137 = t135 - t136;
        const P t138 = c[11] * t77;
        const P t139 = t137 - t138;
        const P t140 = c[7] * t68;
        const P t141 = t26 - t140;
        const P t142 = c[6] * t70;
        const P t143 = t141 - t142;
        const P t144 = c[4] * t72;
        const P t145 = t143 + t144;
        const P t146 = c[8] * t74;
        const P t147 = t145 + t146;
        const P t148 = c[5] * t76;
        const P t149 = t147 - t148;
        const P t150 = c[11] * t69;
        const P t151 = c[10] * t71;
        const P t152 = t150 + t151;
        const P t153 = c[13] * t75;
        const P t154 = t152 + t153;
        const P t155 = c[12] * t73;
        const P t156 = t154 - t155;
        const P t157 = c[9] * t77;
        const P t158 = t156 - t157;
        const P t159 = c[8] * t68;
        const P t160 = c[4] * t70;
        const P t161 = t159 + t160;
        const P t162 = c[7] * t72;
        const P t163 = t161 - t162;
        const P t164 = c[5] * t74;
        const P t165 = t163 - t164;
        const P t166 = c[6] * t76;
        const P t167 = t165 - t166;
        const P t168 = t167 + t26;
        const P t169 = c[13] * t69;
        const P t170 = c[11] * t73;
        const P t171 = t169 + t170;
        const P t172 = c[9] * t75;
        const P t173 = t171 + t172;
        const P t174 = c[12] * t71;
        const P t175 = t173 - t174;
        const P t176 = c[10] * t77;
        const P t177 = t175 - t176;
        // real block of 11, multiplier 2
        const P t178 = t31 + t67;
        const P t179 = t31 - t67;
        const P t180 = t63 + t35;
        const P t181 = t63 - t35;
        const P t182 = t39 + t59;
        const P t183 = t39 - t59;
        const P t184 = t43 + t55;
        const P t185 = t43 - t55;
        const P t186 = t51 + t47;
        const P t187 = t51 - t47;
        const P t188 = t178 + t180;
        const P t189 = t188 + t182;
        const P t190 = t189 + t184;
        const P t191 = t190 + t186;
        const P t192 = t191 + t27;
        const P t193 = c[4] * t178;
        const P t194 = c[5] * t180;
        const P t195 = t193 - t194;
        const P t196 = c[6] * t182;
        const P t197 = t195 - t196;
        const P t198 = c[7] * t184;
        const P t199 = t197 - t198;
        const P t200 = c[8] * t186;
        const P t201 = t199 + t200;
        const P t202 = t201 + t27;
        const P t203 = c[9] * t181;
        const P t204 = c[10] * t183;
        const P t205 = t203 + t204;
        const P t206 = c[11] * t185;
        const P t207 = t205 + t206;
        const P t208 = c[12] * t179;
        const P t209 = t207 - t208;
        const P t210 = c[13] * t187;
        const P t211 = t209 - t210;
        const P t212 = c[5] * t178;
        const P t213 = t27 - t212;
        const P t214 = c[7] * t180;
        const P t215 = t213 - t214;
        const P t216 = c[8] * t182;
        const P t217 = t215 + t216;
        const P t218 = c[6] * t184;
        const P t219 = t217 - t218;
        const P t220 = c[4] * t186;
        const P t221 = t219 + t220;
        const P t222 = c[9] * t179;
        const P t223 = c[11] * t181;
        const P t224 = t222 + t223;
        const P t225 = c[13] * t183;
        const P t226 = t224 + t225;
        const P t227 = c[10] * t185;
        const P t228 = t226 + t227;
        const P t229 = c[12] * t187;
        const P t230 = t228 + t229;
        const P t231 = c[6] * t178;
        const P t232 = t27 - t231;
        const P t233 = c[8] * t180;
        const P t234 = t232 + t233;
        const P t235 = c[5] * t182;
        const P t236 = t234 - t235;
        const P t237 = c[4] * t184;
        const P t238 = t236 + t237;
        const P t239 = c[7] * t186;
        const P t240 = t238 - t239;
        const P t241 = c[10] * t179;
        const P t242 = c[13] * t181;
        const P t243 = t241 + t242;
        const P t244 = c[9] * t183;
        const P t245 = t243 + t244;
        const P t246 = c[12] * t185;
        const P t247 = t245 - t246;
        const P t248 = c[11] * t187;
        const P t249 = t247 - t248;
        const P t250 = c[7] * t178;
        const P t251 = t27 - t250;
        const P t252 = c[6] * t180;
        const P t253 = t251 - t252;
        const P t254 = c[4] * t182;
        const P t255 = t253 + t254;
        const P t256 = c[8] * t184;
        const P t257 = t255 + t256;
        const P t258 = c[5] * t186;
        const P t259 = t257 - t258;
        const P t260 = c[11] * t179;
        const P t261 = c[10] * t181;
        const P t262 = t260 + t261;
        const P t263 = c[13] * t185;
        const P t264 = t262 + t263;
        const P t265 = c[12] * t183;
        const P t266 = t264 - t265;
        const P t267 = c[9] * t187;
        const P t268 = t266 - t267;
        const P t269 = c[8] * t178;
        const P t270 = c[4] * t180;
        const P t271 = t269 + t270;
        const P t272 = c[7] * t182;
        const P t273 = t271 - t272;
        const P t274 = c[5] * t184;
        const P t275 = t273 - t274;
        const P t276 = c[6] * t186;
        const P t277 = t275 - t276;
        const P t278 = t277 + t27;
        const P t279 = c[13] * t179;
        const P t280 = c[11] * t183;
        const P t281 = t279 + t280;
        const P t282 = c[9] * t185;
        const P t283 = t281 + t282;
        const P t284 = c[12] * t181;
        const P t285 = t283 - t284;
        const P t286 = c[10] * t187;
        const P t287 = t285 - t286;
        const P t288 = shuffled<0, 2>(t0, t1);
        // real block of 23, multiplier 2
        const P t289 = t288 + t82;
        const V t290 = part<0>(t289);
        io.re(0, t290);
        const V t291 = part<1>(t289);
        io.re(23, t291);
        const P t292 = c[44] * t82;
        const P t293 = t288 - t292;
        const P t294 = c[22] * t278;
        const P t295 = c[23] * t287;
        const P t296 = t294 + t295;
        const P t297 = c[22] * t287;
        const P t298 = c[23] * t278;
        const P t299 = t297 - t298;
        const P t300 = c[24] * t92;
        const P t301 = c[25] * t101;
        const P t302 = t300 - t301;
        const P t303 = c[24] * t101;
        const P t304 = c[25] * t92;
        const P t305 = t303 + t304;
        const P t306 = c[26] * t259;
        const P t307 = c[27] * t268;
        const P t308 = t306 - t307;
        const P t309 = c[26] * t268;
        const P t310 = c[27] * t259;
        const P t311 = t309 + t310;
        const P t312 = c[28] * t111;
        const P t313 = c[29] * t120;
        const P t314 = t312 + t313;
        const P t315 = c[28] * t120;
        const P t316 = c[29] * t111;
        const P t317 = t315 - t316;
        const P t318 = c[30] * t240;
        const P t319 = c[31] * t249;
        const P t320 = t318 + t319;
        const P t321 = c[30] * t249;
        const P t322 = c[31] * t240;
        const P t323 = t321 - t322;
        const P t324 = c[32] * t139;
        const P t325 = c[33] * t130;
        const P t326 = t324 - t325;
        const P t327 = c[33] * t139;
        const P t328 = c[32] * t130;
        const P t329 = t327 + t328;
        const P t330 = c[34] * t221;
        const P t331 = c[35] * t230;
        const P t332 = t330 - t331;
        const P t333 = c[34] * t230;
        const P t334 = c[35] * t221;
        const P t335 = t333 + t334;
        const P t336 = c[36] * t149;
        const P t337 = c[37] * t158;
        const P t338 = t336 - t337;
        const P t339 = c[36] * t158;
        const P t340 = c[37] * t149;
        const P t341 = t339 + t340;
        const P t342 = c[38] * t211;
        const P t343 = c[39] * t202;
        const P t344 = t342 - t343;
        const P t345 = c[39] * t211;
        const P t346 = c[38] * t202;
        const P t347 = t345 + t346;
        const P t348 = c[40] * t168;
        const P t349 = c[41] * t177;
        const P t350 = t348 - t349;
        const P t351 = c[40] * t177;
        const P t352 = c[41] * t168;
        const P t353 = t351 + t352;
        // real block of 5
        const P t354 = t350 - t314;
        const P t355 = t314 + t350;
        const P t356 = t326 + t338;
        const P t357 = t326 - t338;
        const P t358 = t354 + t356;
        const P t359 = t358 + t302;
        const P t360 = c[0] * t354;
        const P t361 = c[1] * t356;
        const P t362 = t360 - t361;
        const P t363 = t362 + t302;
        const P t364 = c[2] * t355;
        const P t365 = c[3] * t357;
        const P t366 = t364 + t365;
        const P t367 = c[1] * t354;
        const P t368 = t302 - t367;
        const P t369 = c[0] * t356;
        const P t370 = t368 + t369;
        const P t371 = c[3] * t355;
        const P t372 = c[2] * t357;
        const P t373 = t371 - t372;
        // real block of 5
        const P t374 = t353 - t317;
        const P t375 = t317 + t353;
        const P t376 = t341 - t329;
        const P t377 = t329 + t341;
        const P t378 = t374 + t376;
        const P t379 = t378 + t305;
        const P t380 = c[0] * t374;
        const P t381 = c[1] * t376;
        const P t382 = t380 - t381;
        const P t383 = t382 + t305;
        const P t384 = c[2] * t375;
        const P t385 = c[3] * t377;
        const P t386 = t384 - t385;
        const P t387 = c[1] * t374;
        const P t388 = t305 - t387;
        const P t389 = c[0] * t376;
        const P t390 = t388 + t389;
        const P t391 = c[3] * t375;
        const P t392 = c[2] * t377;
        const P t393 = t391 + t392;
        // spectrum block of 11
        const P t394 = c[42] * t359;
        const P t395 = t293 - t394;
        const P t396 = c[14] * t390;
        const P t397 = c[15] * t393;
        const P t398 = t396 + t397;
        const P t399 = c[14] * t393;
        const P t400 = c[15] * t390;
        const P t401 = t399 - t400;
        const P t402 = c[16] * t363;
        const P t403 = c[17] * t366;
        const P t404 = t402 - t403;
        const P t405 = c[16] * t366;
        const P t406 = c[17] * t363;
        const P t407 = t405 + t406;
        const P t408 = c[18] * t383;
        const P t409 = c[19] * t386;
        const P t410 = t408 - t409;
        const P t411 = c[18] * t386;
        const P t412 = c[19] * t383;
        const P t413 = t411 + t412;
        const P t414 = c[20] * t370;
        const P t415 = c[21] * t373;
        const P t416 = t414 - t415;
        const P t417 = c[20] * t373;
        const P t418 = c[21] * t370;
        const P t419 = t417 + t418;
        const P t420 = c[43] * t379;
        // spectrum block of 2
        const P t421 = t395 - t420;
        const P t422 = t395 + t420;
        // complex block of 2
        const P t423 = t407 + t413;
        const P t424 = t404 + t410;
        const P t425 = t407 - t413;
        const P t426 = t404 - t410;
        // complex block of 2
        const P t427 = t419 - t401;
        const P t428 = t416 - t398;
        const P t429 = t419 + t401;
        const P t430 = t416 + t398;
        // spectrum block of 5, multiplier 2
        const P t431 = t424 + t428;
        const P t432 = t431 + t421;
        const P t433 = c[0] * t424;
        const P t434 = c[1] * t428;
        const P t435 = t433 - t434;
        const P t436 = t435 + t421;
        const P t437 = c[2] * t423;
        const P t438 = c[3] * t427;
        const P t439 = t437 + t438;
        const P t440 = t436 - t439;
        const P t441 = t436 + t439;
        const P t442 = c[1] * t424;
        const P t443 = t421 - t442;
        const P t444 = c[0] * t428;
        const P t445 = t443 + t444;
        const P t446 = c[3] * t423;
        const P t447 = c[2] * t427;
        const P t448 = t446 - t447;
        const P t449 = t445 - t448;
        const P t450 = t445 + t448;
        // spectrum block of 5, multiplier 2
        const P t451 = t426 + t430;
        const P t452 = t451 + t422;
        const P t453 = c[0] * t426;
        const P t454 = c[1] * t430;
        const P t455 = t453 - t454;
        const P t456 = t455 + t422;
        const P t457 = c[2] * t425;
        const P t458 = c[3] * t429;
        const P t459 = t457 + t458;
        const P t460 = t456 - t459;
        const P t461 = t456 + t459;
        const P t462 = c[1] * t426;
        const P t463 = t422 - t462;
        const P t464 = c[0] * t430;
        const P t465 = t463 + t464;
        const P t466 = c[3] * t425;
        const P t467 = c[2] * t429;
        const P t468 = t466 - t467;
        const P t469 = t465 - t468;
        const P t470 = t465 + t468;
        // spectrum block of 11
        const P t471 = t293 + t359;
        // real block of 5
        const P t472 = t335 + t299;
        const P t473 = t335 - t299;
        const P t474 = t323 - t311;
        const P t475 = t323 + t311;
        const P t476 = t472 + t474;
        const P t477 = t476 + t347;
        const P t478 = c[0] * t472;
        const P t479 = c[1] * t474;
        const P t480 = t478 - t479;
        const P t481 = t480 + t347;
        const P t482 = c[3] * t475;
        const P t483 = c[2] * t473;
        const P t484 = t482 - t483;
        const P t485 = c[1] * t472;
        const P t486 = t347 - t485;
        const P t487 = c[0] * t474;
        const P t488 = t486 + t487;
        const P t489 = c[3] * t473;
        const P t490 = c[2] * t475;
        const P t491 = t489 + t490;
        // real block of 5
        const P t492 = t332 + t296;
        const P t493 = t296 - t332;
        const P t494 = t308 - t320;
        const P t495 = t320 + t308;
        const P t496 = t494 - t492;
        const P t497 = t496 + t344;
        const P t498 = c[0] * t492;
        const P t499 = t344 - t498;
        const P t500 = c[1] * t494;
        const P t501 = t499 - t500;
        const P t502 = c[2] * t493;
        const P t503 = c[3] * t495;
        const P t504 = t502 + t503;
        const P t505 = c[1] * t492;
        const P t506 = c[0] * t494;
        const P t507 = t505 + t506;
        const P t508 = t507 + t344;
        const P t509 = c[2] * t495;
        const P t510 = c[3] * t493;
        const P t511 = t509 - t510;
        // real block of 23, multiplier 2
        const P t512 = c[45] * t192;
        // spectrum block of 11
        const P t513 = c[42] * t477;
        const P t514 = t512 + t513;
        const P t515 = c[14] * t508;
        const P t516 = c[15] * t511;
        const P t517 = t515 + t516;
        const P t518 = c[14] * t511;
        const P t519 = c[15] * t508;
        const P t520 = t518 - t519;
        const P t521 = c[16] * t481;
        const P t522 = c[17] * t484;
        const P t523 = t521 - t522;
        const P t524 = c[16] * t484;
        const P t525 = c[17] * t481;
        const P t526 = t524 + t525;
        const P t527 = c[18] * t501;
        const P t528 = c[19] * t504;
        const P t529 = t527 + t528;
        const P t530 = c[18] * t504;
        const P t531 = c[19] * t501;
        const P t532 = t530 - t531;
        const P t533 = c[20] * t488;
        const P t534 = c[21] * t491;
        const P t535 = t533 + t534;
        const P t536 = c[21] * t488;
        const P t537 = c[20] * t491;
        const P t538 = t536 - t537;
        const P t539 = c[43] * t497;
        // spectrum block of 2
        const P t540 = t514 + t539;
        const P t541 = t539 - t514;
        // complex block of 2
        const P t542 = t526 - t532;
        const P t543 = t523 + t529;
        const P t544 = t526 + t532;
        const P t545 = t523 - t529;
        // complex block of 2
        const P t546 = t538 - t520;
        const P t547 = t535 - t517;
        const P t548 = t538 + t520;
        const P t549 = t535 + t517;
        // spectrum block of 5, multiplier 2
        const P t550 = t543 + t547;
        const P t551 = t550 - t540;
        const P t552 = shuffled<1, 3>(t432, t551);
        io.pair(5, negated<0, 1>(t552));
        const P t553 = shuffled<0, 2>(t432, t551);
        io.pair(18, t553);
        const P t554 = c[0] * t543;
        const P t555 = c[1] * t547;
        const P t556 = t554 - t555;
        const P t557 = t556 - t540;
        const P t558 = c[2] * t542;
        const P t559 = c[3] * t546;
        const P t560 = t558 + t559;
        const P t561 = t557 - t560;
        const P t562 = shuffled<1, 3>(t440, t561);
        io.pair(7, negated<0, 1>(t562));
        const P t563 = shuffled<0, 2>(t440, t561);
        io.pair(16, t563);
        const P t564 = t557 + t560;
        const P t565 = shuffled<0, 2>(t441, t564);
        io.pair(4, t565);
        const P t566 = shuffled<1, 3>(t441, t564);
        io.pair(19, negated<0, 1>(t566));
        const P t567 = c[1] * t543;
        const P t568 = t540 + t567;
        const P t569 = c[0] * t547;
        const P t570 = t569 - t568;
        const P t571 = c[3] * t542;
        const P t572 = c[2] * t546;
        const P t573 = t571 - t572;
        const P t574 = t570 - t573;
        const P t575 = shuffled<1, 3>(t449, t574);
        io.pair(9, t575);
        const P t576 = shuffled<0, 2>(t449, t574);
        io.pair(14, negated<0, 1>(t576));
        const P t577 = t570 + t573;
        const P t578 = shuffled<1, 3>(t450, t577);
        io.pair(11, negated<0, 1>(t578));
        const P t579 = shuffled<0, 2>(t450, t577);
        io.pair(12, t579);
        // spectrum block of 5, multiplier 2
        const P t580 = t545 + t549;
        const P t581 = t580 + t541;
        const P t582 = shuffled<0, 2>(t452, t581);
        io.pair(10, negated<0, 1>(t582));
        const P t583 = shuffled<1, 3>(t452, t581);
        io.pair(13, t583);
        const P t584 = c[0] * t545;
        const P t585 = c[1] * t549;
        const P t586 = t584 - t585;
        const P t587 = t586 + t541;
        const P t588 = c[2] * t544;
        const P t589 = c[3] * t548;
        const P t590 = t588 + t589;
        const P t591 = t587 - t590;
        const P t592 = shuffled<0, 2>(t460, t591);
        io.pair(6, t592);
        const P t593 = shuffled<1, 3>(t460, t591);
        io.pair(17, negated<0, 1>(t593));
        const P t594 = t587 + t590;
        const P t595 = shuffled<1, 3>(t461, t594);
        io.pair(1, t595);
        const P t596 = shuffled<0, 2>(t461, t594);
        io.pair(22, negated<0, 1>(t596));
        const P t597 = c[1] * t545;
        const P t598 = t541 - t597;
        const P t599 = c[0] * t549;
        const P t600 = t598 + t599;
        const P t601 = c[3] * t544;
        const P t602 = c[2] * t548;
        const P t603 = t601 - t602;
        const P t604 = t600 - t603;
        const P t605 = shuffled<1, 3>(t469, t604);
        io.pair(3, t605);
        const P t606 = shuffled<0, 2>(t469, t604);
        io.pair(20, negated<0, 1>(t606));
        const P t607 = t600 + t603;
        const P t608 = shuffled<0, 2>(t470, t607);
        io.pair(8, t608);
        const P t609 = shuffled<1, 3>(t470, t607);
        io.pair(15, negated<0, 1>(t609));
        // spectrum block of 11
        const P t610 = t477 - t512;
        const P t611 = shuffled<0, 2>(t471, t610);
        io.pair(2, t611);
        const P t612 = shuffled<1, 3>(t471, t610);
        io.pair(21, negated<0, 1>(t612));
    }
};

}  // namespace zulg
