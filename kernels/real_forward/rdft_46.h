// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 46.
// Forward DFT of 46 real points, prime-factor 2, 23.
// 341 additions, 305 subtractions, 484 multiplications (530 with `scale`); 11 outputs negated; 46 constants; 59 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<46> {
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
        0.9096319953545183,  // c[9]: sin 2 pi 2/11
        0.7557495743542583,  // c[10]: -sin 2 pi 18/11
        0.28173255684142967,  // c[11]: -sin 2 pi 6/11
        0.9898214418809327,  // c[12]: -sin 2 pi 8/11
        0.5406408174555976,  // c[13]: sin 2 pi 12/11
        0.19106037559687397,  // c[14]: -P[1] of 11
        0.635213297150478,  // c[15]: -Q[1] of 11
        0.4025393125514894,  // c[16]: Q[2] of 11
        0.5272211128649671,  // c[17]: P[2] of 11
        0.5082556049431003,  // c[18]: -P[3] of 11
        0.4262349587304204,  // c[19]: Q[3] of 11
        0.5182443007085755,  // c[20]: Q[4] of 11
        0.41403241996621415,  // c[21]: P[4] of 11
        0.39967916400094217,  // c[22]: -Q[1] of 23
        0.17418154463549565,  // c[23]: -P[1] of 23
        0.1396613400420585,  // c[24]: Q[2] of 23
        0.4130101145562366,  // c[25]: P[2] of 23
        0.3222553093449257,  // c[26]: -Q[3] of 23
        0.2936565344532715,  // c[27]: P[3] of 23
        0.42985679697172136,  // c[28]: -Q[4] of 23
        0.07284077652875139,  // c[29]: -P[4] of 23
        0.12855275355334153,  // c[30]: -Q[5] of 23
        0.4166015292602189,  // c[31]: -P[5] of 23
        0.3397700700904962,  // c[32]: -Q[6] of 23
        0.2732012886111602,  // c[33]: -P[6] of 23
        0.3941449686576057,  // c[34]: Q[7] of 23
        0.1863662746045921,  // c[35]: P[7] of 23
        0.05696081894716527,  // c[36]: Q[8] of 23
        0.4322477411542684,  // c[37]: P[8] of 23
        0.15475065017493012,  // c[38]: Q[9] of 23
        0.4075964682115579,  // c[39]: -P[9] of 23
        0.1719176660785936,  // c[40]: Q[10] of 23
        0.4006581594304406,  // c[41]: P[10] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: -beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: -beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x23 = io.in(23);
        const V t0 = x0 + x23;
        const V t1 = x0 - x23;
        // real block of 2
        const V x2 = io.in(2);
        const V x25 = io.in(25);
        const V t2 = x2 + x25;
        const V t3 = x2 - x25;
        // real block of 2
        const V x4 = io.in(4);
        const V x27 = io.in(27);
        const V t4 = x4 + x27;
        const V t5 = x4 - x27;
        // real block of 2
        const V x6 = io.in(6);
        const V x29 = io.in(29);
        const V t6 = x6 + x29;
        const V t7 = x6 - x29;
        // real block of 2
        const V x8 = io.in(8);
        const V x31 = io.in(31);
        const V t8 = x8 + x31;
        const V t9 = x8 - x31;
        // real block of 2
        const V x10 = io.in(10);
        const V x33 = io.in(33);
        const V t10 = x10 + x33;
        const V t11 = x10 - x33;
        // real block of 2
        const V x12 = io.in(12);
        const V x35 = io.in(35);
        const V t12 = x12 + x35;
        const V t13 = x12 - x35;
        // real block of 2
        const V x14 = io.in(14);
        const V x37 = io.in(37);
        const V t14 = x14 + x37;
        const V t15 = x14 - x37;
        // real block of 2
        const V x16 = io.in(16);
        const V x39 = io.in(39);
        const V t16 = x16 + x39;
        const V t17 = x16 - x39;
        // real block of 2
        const V x18 = io.in(18);
        const V x41 = io.in(41);
        const V t18 = x18 + x41;
        const V t19 = x18 - x41;
        // real block of 2
        const V x20 = io.in(20);
        const V x43 = io.in(43);
        const V t20 = x20 + x43;
        const V t21 = x20 - x43;
        // real block of 2
        const V x22 = io.in(22);
        const V x45 = io.in(45);
        const V t22 = x22 + x45;
        const V t23 = x22 - x45;
        // real block of 2
        const V x24 = io.in(24);
        const V x1 = io.in(1);
        const V t24 = x24 + x1;
        const V t25 = x24 - x1;
        // real block of 2
        const V x26 = io.in(26);
        const V x3 = io.in(3);
        const V t26 = x26 + x3;
        const V t27 = x26 - x3;
        // real block of 2
        const V x28 = io.in(28);
        const V x5 = io.in(5);
        const V t28 = x28 + x5;
        const V t29 = x28 - x5;
        // real block of 2
        const V x30 = io.in(30);
        const V x7 = io.in(7);
        const V t30 = x30 + x7;
        const V t31 = x30 - x7;
        // real block of 2
        const V x32 = io.in(32);
        const V x9 = io.in(9);
        const V t32 = x32 + x9;
        const V t33 = x32 - x9;
        // real block of 2
        const V x34 = io.in(34);
        const V x11 = io.in(11);
        const V t34 = x34 + x11;
        const V t35 = x34 - x11;
        // real block of 2
        const V x36 = io.in(36);
        const V x13 = io.in(13);
        const V t36 = x36 + x13;
        const V t37 = x36 - x13;
        // real block of 2
        const V x38 = io.in(38);
        const V x15 = io.in(15);
        const V t38 = x38 + x15;
        const V t39 = x38 - x15;
        // real block of 2
        const V x40 = io.in(40);
        const V x17 = io.in(17);
        const V t40 = x40 + x17;
        const V t41 = x40 - x17;
        // real block of 2
        const V x42 = io.in(42);
        const V x19 = io.in(19);
        const V t42 = x42 + x19;
        const V t43 = x42 - x19;
        // real block of 2
        const V x44 = io.in(44);
        const V x21 = io.in(21);
        const V t44 = x44 + x21;
        const V t45 = x44 - x21;
        // real block of 2
        const V t46 = t2 + t44;
        const V t47 = t2 - t44;
        // real block of 2
        const V t48 = t4 + t42;
        const V t49 = t4 - t42;
        // real block of 2
        const V t50 = t8 + t38;
        const V t51 = t8 - t38;
        // real block of 2
        const V t52 = t16 + t30;
        const V t53 = t16 - t30;
        // real block of 2
        const V t54 = t32 + t14;
        const V t55 = t32 - t14;
        // real block of 2
        const V t56 = t18 + t28;
        const V t57 = t18 - t28;
        // real block of 2
        const V t58 = t36 + t10;
        const V t59 = t36 - t10;
        // real block of 2
        const V t60 = t26 + t20;
        const V t61 = t26 - t20;
        // real block of 2
        const V t62 = t6 + t40;
        const V t63 = t6 - t40;
        // real block of 2
        const V t64 = t12 + t34;
        const V t65 = t12 - t34;
        // real block of 2
        const V t66 = t24 + t22;
        const V t67 = t24 - t22;
        // real block of 11, multiplier 2
        const V t68 = t48 + t66;
        const V t69 = t48 - t66;
        const V t70 = t64 + t50;
        const V t71 = t64 - t50;
        const V t72 = t52 + t62;
        const V t73 = t52 - t62;
        const V t74 = t54 + t60;
        const V t75 = t54 - t60;
        const V t76 = t58 + t56;
        const V t77 = t58 - t56;
        const V t78 = t68 + t70;
        const V t79 = t78 + t72;
        const V t80 = t79 + t74;
        const V t81 = t80 + t76;
        const V t82 = t81 + t46;
        const V t83 = c[4] * t68;
        const V t84 = c[5] * t70;
        const V t85 = t83 - t84;
        const V t86 = c[6] * t72;
        const V t87 = t85 - t86;
        const V t88 = c[7] * t74;
        const V t89 = t87 - t88;
        const V t90 = c[8] * t76;
        const V t91 = t89 + t90;
        const V t92 = t91 + t46;
        const V t93 = c[9] * t69;
        const V t94 = c[10] * t71;
        const V t95 = c[11] * t73;
        const V t96 = c[12] * t75;
        const V t97 = c[13] * t77;
        const V t98 = t94 + t95;
        const V t99 = t98 + t96;
        const V t100 = t99 - t93;
        const V t101 = t100 - t97;
        const V t102 = c[5] * t68;
        const V t103 = t46 - t102;
        const V t104 = c[7] * t70;
        const V t105 = t103 - t104;
        const V t106 = c[8] * t72;
        const V t107 = t105 + t106;
        const V t108 = c[6] * t74;
        const V t109 = t107 - t108;
        const V t110 = c[4] * t76;
        const V t111 = t109 + t110;
        const V t112 = c[10] * t69;
        const V t113 = c[12] * t71;
        const V t114 = c[13] * t73;
        const V t115 = c[11] * t75;
        const V t116 = c[9] * t77;
        const V t117 = t112 + t113;
        const V t118 = t117 + t114;
        const V t119 = t118 + t115;
        const V t120 = t119 + t116;
        const V t121 = c[6] * t68;
        const V t122 = t46 - t121;
        const V t123 = c[8] * t70;
        const V t124 = t122 + t123;
        const V t125 = c[5] * t72;
        const V t126 = t124 - t125;
        const V t127 = c[4] * t74;
        const V t128 = t126 + t127;
        const V t129 = c[7] * t76;
        const V t130 = t128 - t129;
        const V t131 = c[11] * t69;
        const V t132 = c[13] * t71;
        const V t133 = c[10] * t73;
        const V t134 = c[9] * t75;
        const V t135 = c[12] * t77;
        const V t136 = t131 + t132;
        const V t137 = t136 + t133;
        const V t138 = t137 - t134;
        const V t139 = t138 - t135;
        const V t140 = c[7] * t68;
        const V t141 = t46 - t140;
        const V t142 = c[6] * t70;
        const V t143 = t141 - t142;
        const V t144 = c[4] * t72;
        const V t145 = t143 + t144;
        const V t146 = c[8] * t74;
        const V t147 = t145 + t146;
        const V t148 = c[5] * t76;
        const V t149 = t147 - t148;
        const V t150 = c[12] * t69;
        const V t151 = c[11] * t71;
        const V t152 = c[9] * t73;
        const V t153 = c[13] * t75;
        const V t154 = c[10] * t77;
        const V t155 = t150 + t151;
        const V t156 = t155 + t153;
        const V t157 = t156 - t152;
        const V t158 = t157 - t154;
        const V t159 = c[8] * t68;
        const V t160 = c[4] * t70;
        const V t161 = t159 + t160;
        const V t162 = c[7] * t72;
        const V t163 = t161 - t162;
        const V t164 = c[5] * t74;
        const V t165 = t163 - t164;
        const V t166 = c[6] * t76;
        const V t167 = t165 - t166;
        const V t168 = t167 + t46;
        const V t169 = c[13] * t69;
        const V t170 = c[9] * t71;
        const V t171 = c[12] * t73;
        const V t172 = c[10] * t75;
        const V t173 = c[11] * t77;
        const V t174 = t169 + t171;
        const V t175 = t174 + t172;
        const V t176 = t175 - t170;
        const V t177 = t176 - t173;
        // real block of 11, multiplier 2
        const V t178 = t49 + t67;
        const V t179 = t49 - t67;
        const V t180 = t65 + t51;
        const V t181 = t65 - t51;
        const V t182 = t53 + t63;
        const V t183 = t53 - t63;
        const V t184 = t55 + t61;
        const V t185 = t55 - t61;
        const V t186 = t59 + t57;
        const V t187 = t59 - t57;
        const V t188 = t178 + t180;
        const V t189 = t188 + t182;
        const V t190 = t189 + t184;
        const V t191 = t190 + t186;
        const V t192 = t191 + t47;
        const V t193 = c[4] * t178;
        const V t194 = c[5] * t180;
        const V t195 = t193 - t194;
        const V t196 = c[6] * t182;
        const V t197 = t195 - t196;
        const V t198 = c[7] * t184;
        const V t199 = t197 - t198;
        const V t200 = c[8] * t186;
        const V t201 = t199 + t200;
        const V t202 = t201 + t47;
        const V t203 = c[9] * t179;
        const V t204 = c[10] * t181;
        const V t205 = c[11] * t183;
        const V t206 = c[12] * t185;
        const V t207 = c[13] * t187;
        const V t208 = t204 + t205;
        const V t209 = t208 + t206;
        const V t210 = t209 - t203;
        const V t211 = t210 - t207;
        const V t212 = c[5] * t178;
        const V t213 = t47 - t212;
        const V t214 = c[7] * t180;
        const V t215 = t213 - t214;
        const V t216 = c[8] * t182;
        const V t217 = t215 + t216;
        const V t218 = c[6] * t184;
        const V t219 = t217 - t218;
        const V t220 = c[4] * t186;
        const V t221 = t219 + t220;
        const V t222 = c[10] * t179;
        const V t223 = c[12] * t181;
        const V t224 = c[13] * t183;
        const V t225 = c[11] * t185;
        const V t226 = c[9] * t187;
        const V t227 = t222 + t223;
        const V t228 = t227 + t224;
        const V t229 = t228 + t225;
        const V t230 = t229 + t226;
        const V t231 = c[6] * t178;
        const V t232 = t47 - t231;
        const V t233 = c[8] * t180;
        const V t234 = t232 + t233;
        const V t235 = c[5] * t182;
        const V t236 = t234 - t235;
        const V t237 = c[4] * t184;
        const V t238 = t236 + t237;
        const V t239 = c[7] * t186;
        const V t240 = t238 - t239;
        const V t241 = c[11] * t179;
        const V t242 = c[13] * t181;
        const V t243 = c[10] * t183;
        const V t244 = c[9] * t185;
        const V t245 = c[12] * t187;
        const V t246 = t241 + t242;
        const V t247 = t246 + t243;
        const V t248 = t247 - t244;
        const V t249 = t248 - t245;
        const V t250 = c[7] * t178;
        const V t251 = t47 - t250;
        const V t252 = c[6] * t180;
        const V t253 = t251 - t252;
        const V t254 = c[4] * t182;
        const V t255 = t253 + t254;
        const V t256 = c[8] * t184;
        const V t257 = t255 + t256;
        const V t258 = c[5] * t186;
        const V t259 = t257 - t258;
        const V t260 = c[12] * t179;
        const V t261 = c[11] * t181;
        const V t262 = c[9] * t183;
        const V t263 = c[13] * t185;
        const V t264 = c[10] * t187;
        const V t265 = t260 + t261;
        const V t266 = t265 + t263;
        const V t267 = t266 - t262;
        const V t268 = t267 - t264;
        const V t269 = c[8] * t178;
        const V t270 = c[4] * t180;
        const V t271 = t269 + t270;
        const V t272 = c[7] * t182;
        const V t273 = t271 - t272;
        const V t274 = c[5] * t184;
        const V t275 = t273 - t274;
        const V t276 = c[6] * t186;
        const V t277 = t275 - t276;
        const V t278 = t277 + t47;
        const V t279 = c[13] * t179;
        const V t280 = c[9] * t181;
        const V t281 = c[12] * t183;
        const V t282 = c[10] * t185;
        const V t283 = c[11] * t187;
        const V t284 = t279 + t281;
        const V t285 = t284 + t282;
        const V t286 = t285 - t280;
        const V t287 = t286 - t283;
        // real block of 23, multiplier 2
        const V t288 = t0 + t82;
        io.re(0, t288);
        const V t289 = c[44] * t82;
        const V t290 = t0 - t289;
        const V t291 = c[22] * t287;
        const V t292 = c[23] * t278;
        const V t293 = t292 + t291;
        const V t294 = c[22] * t278;
        const V t295 = c[23] * t287;
        const V t296 = t295 - t294;
        const V t297 = c[24] * t101;
        const V t298 = c[25] * t92;
        const V t299 = t298 - t297;
        const V t300 = c[24] * t92;
        const V t301 = c[25] * t101;
        const V t302 = t301 + t300;
        const V t303 = c[26] * t268;
        const V t304 = c[27] * t259;
        const V t305 = t304 - t303;
        const V t306 = c[26] * t259;
        const V t307 = c[27] * t268;
        const V t308 = t307 + t306;
        const V t309 = c[28] * t120;
        const V t310 = c[29] * t111;
        const V t311 = t310 + t309;
        const V t312 = c[28] * t111;
        const V t313 = c[29] * t120;
        const V t314 = t313 - t312;
        const V t315 = c[30] * t249;
        const V t316 = c[31] * t240;
        const V t317 = t316 + t315;
        const V t318 = c[30] * t240;
        const V t319 = c[31] * t249;
        const V t320 = t319 - t318;
        const V t321 = c[32] * t139;
        const V t322 = c[33] * t130;
        const V t323 = t321 - t322;
        const V t324 = c[32] * t130;
        const V t325 = c[33] * t139;
        const V t326 = t325 + t324;
        const V t327 = c[34] * t230;
        const V t328 = c[35] * t221;
        const V t329 = t328 - t327;
        const V t330 = c[34] * t221;
        const V t331 = c[35] * t230;
        const V t332 = t331 + t330;
        const V t333 = c[36] * t158;
        const V t334 = c[37] * t149;
        const V t335 = t334 - t333;
        const V t336 = c[36] * t149;
        const V t337 = c[37] * t158;
        const V t338 = t337 + t336;
        const V t339 = c[38] * t211;
        const V t340 = c[39] * t202;
        const V t341 = t339 - t340;
        const V t342 = c[38] * t202;
        const V t343 = c[39] * t211;
        const V t344 = t343 + t342;
        const V t345 = c[40] * t177;
        const V t346 = c[41] * t168;
        const V t347 = t346 - t345;
        const V t348 = c[40] * t168;
        const V t349 = c[41] * t177;
        const V t350 = t349 + t348;
        const V t351 = c[45] * t192;
        // real block of 5
        const V t352 = t347 - t311;
        const V t353 = t311 + t347;
        const V t354 = t323 + t335;
        const V t355 = t323 - t335;
        const V t356 = t352 + t354;
        const V t357 = t356 + t299;
        const V t358 = c[0] * t352;
        const V t359 = c[1] * t354;
        const V t360 = t358 - t359;
        const V t361 = t360 + t299;
        const V t362 = c[2] * t353;
        const V t363 = c[3] * t355;
        const V t364 = t362 + t363;
        const V t365 = c[1] * t352;
        const V t366 = t299 - t365;
        const V t367 = c[0] * t354;
        const V t368 = t366 + t367;
        const V t369 = c[3] * t353;
        const V t370 = c[2] * t355;
        const V t371 = t369 - t370;
        // real block of 5
        const V t372 = t350 - t314;
        const V t373 = t314 + t350;
        const V t374 = t338 - t326;
        const V t375 = t326 + t338;
        const V t376 = t372 + t374;
        const V t377 = t376 + t302;
        const V t378 = c[0] * t372;
        const V t379 = c[1] * t374;
        const V t380 = t378 - t379;
        const V t381 = t380 + t302;
        const V t382 = c[2] * t373;
        const V t383 = c[3] * t375;
        const V t384 = t382 - t383;
        const V t385 = c[1] * t372;
        const V t386 = t302 - t385;
        const V t387 = c[0] * t374;
        const V t388 = t386 + t387;
        const V t389 = c[3] * t373;
        const V t390 = c[2] * t375;
        const V t391 = t389 + t390;
        // spectrum block of 11
        const V t392 = c[42] * t357;
        const V t393 = t290 - t392;
        const V t394 = c[14] * t391;
        const V t395 = c[15] * t388;
        const V t396 = t395 + t394;
        const V t397 = c[14] * t388;
        const V t398 = c[15] * t391;
        const V t399 = t398 - t397;
        const V t400 = c[16] * t364;
        const V t401 = c[17] * t361;
        const V t402 = t401 - t400;
        const V t403 = c[16] * t361;
        const V t404 = c[17] * t364;
        const V t405 = t404 + t403;
        const V t406 = c[18] * t384;
        const V t407 = c[19] * t381;
        const V t408 = t407 - t406;
        const V t409 = c[18] * t381;
        const V t410 = c[19] * t384;
        const V t411 = t410 + t409;
        const V t412 = c[20] * t371;
        const V t413 = c[21] * t368;
        const V t414 = t413 - t412;
        const V t415 = c[20] * t368;
        const V t416 = c[21] * t371;
        const V t417 = t416 + t415;
        const V t418 = c[43] * t377;
        // spectrum block of 2
        const V t419 = t393 - t418;
        const V t420 = t393 + t418;
        // complex block of 2
        const V t421 = t405 + t411;
        const V t422 = t402 + t408;
        const V t423 = t405 - t411;
        const V t424 = t402 - t408;
        // complex block of 2
        const V t425 = t417 - t399;
        const V t426 = t414 - t396;
        const V t427 = t417 + t399;
        const V t428 = t414 + t396;
        // spectrum block of 5, multiplier 2
        const V t429 = t422 + t426;
        const V t430 = t429 + t419;
        io.re(18, t430);
        const V t431 = c[0] * t422;
        const V t432 = c[1] * t426;
        const V t433 = t431 - t432;
        const V t434 = t433 + t419;
        const V t435 = c[2] * t421;
        const V t436 = c[3] * t425;
        const V t437 = t435 + t436;
        const V t438 = t434 - t437;
        io.re(16, t438);
        const V t439 = t434 + t437;
        io.re(4, t439);
        const V t440 = c[1] * t422;
        const V t441 = t419 - t440;
        const V t442 = c[0] * t426;
        const V t443 = t441 + t442;
        const V t444 = c[3] * t421;
        const V t445 = c[2] * t425;
        const V t446 = t444 - t445;
        const V t447 = t443 - t446;
        io.re(14, t447);
        const V t448 = t443 + t446;
        io.re(12, t448);
        // spectrum block of 5, multiplier 2
        const V t449 = t424 + t428;
        const V t450 = t449 + t420;
        io.re(10, t450);
        const V t451 = c[0] * t424;
        const V t452 = c[1] * t428;
        const V t453 = t451 - t452;
        const V t454 = t453 + t420;
        const V t455 = c[2] * t423;
        const V t456 = c[3] * t427;
        const V t457 = t455 + t456;
        const V t458 = t454 - t457;
        io.re(6, t458);
        const V t459 = t454 + t457;
        io.re(22, t459);
        const V t460 = c[1] * t424;
        const V t461 = t420 - t460;
        const V t462 = c[0] * t428;
        const V t463 = t461 + t462;
        const V t464 = c[3] * t423;
        const V t465 = c[2] * t427;
        const V t466 = t464 - t465;
        const V t467 = t463 - t466;
        io.re(20, t467);
        const V t468 = t463 + t466;
        io.re(8, t468);
        // spectrum block of 11
        const V t469 = t290 + t357;
        io.re(2, t469);
        // real block of 5
        const V t470 = t332 + t296;
        const V t471 = t332 - t296;
        const V t472 = t320 - t308;
        const V t473 = t320 + t308;
        const V t474 = t470 + t472;
        const V t475 = t474 + t344;
        const V t476 = c[0] * t470;
        const V t477 = c[1] * t472;
        const V t478 = t476 - t477;
        const V t479 = t478 + t344;
        const V t480 = c[2] * t471;
        const V t481 = c[3] * t473;
        const V t482 = t481 - t480;
        const V t483 = c[1] * t470;
        const V t484 = t344 - t483;
        const V t485 = c[0] * t472;
        const V t486 = t484 + t485;
        const V t487 = c[3] * t471;
        const V t488 = c[2] * t473;
        const V t489 = t487 + t488;
        // real block of 5
        const V t490 = t329 + t293;
        const V t491 = t293 - t329;
        const V t492 = t305 - t317;
        const V t493 = t317 + t305;
        const V t494 = t492 - t490;
        const V t495 = t494 + t341;
        const V t496 = c[0] * t490;
        const V t497 = t341 - t496;
        const V t498 = c[1] * t492;
        const V t499 = t497 - t498;
        const V t500 = c[2] * t491;
        const V t501 = c[3] * t493;
        const V t502 = t500 + t501;
        const V t503 = c[1] * t490;
        const V t504 = c[0] * t492;
        const V t505 = t503 + t504;
        const V t506 = t505 + t341;
        const V t507 = c[3] * t491;
        const V t508 = c[2] * t493;
        const V t509 = t508 - t507;
        // spectrum block of 11
        const V t510 = c[42] * t475;
        const V t511 = t351 + t510;
        const V t512 = c[14] * t509;
        const V t513 = c[15] * t506;
        const V t514 = t513 + t512;
        const V t515 = c[14] * t506;
        const V t516 = c[15] * t509;
        const V t517 = t516 - t515;
        const V t518 = c[16] * t482;
        const V t519 = c[17] * t479;
        const V t520 = t519 - t518;
        const V t521 = c[16] * t479;
        const V t522 = c[17] * t482;
        const V t523 = t522 + t521;
        const V t524 = c[18] * t502;
        const V t525 = c[19] * t499;
        const V t526 = t525 + t524;
        const V t527 = c[18] * t499;
        const V t528 = c[19] * t502;
        const V t529 = t528 - t527;
        const V t530 = c[20] * t489;
        const V t531 = c[21] * t486;
        const V t532 = t531 + t530;
        const V t533 = c[20] * t486;
        const V t534 = c[21] * t489;
        const V t535 = t533 - t534;
        const V t536 = c[43] * t495;
        // spectrum block of 2
        const V t537 = t511 + t536;
        const V t538 = t536 - t511;
        // complex block of 2
        const V t539 = t523 - t529;
        const V t540 = t520 + t526;
        const V t541 = t523 + t529;
        const V t542 = t520 - t526;
        // complex block of 2
        const V t543 = t535 - t517;
        const V t544 = t532 - t514;
        const V t545 = t535 + t517;
        const V t546 = t532 + t514;
        // spectrum block of 5, multiplier 2
        const V t547 = t540 + t544;
        const V t548 = t547 - t537;
        io.im(18, t548);
        const V t549 = c[0] * t540;
        const V t550 = c[1] * t544;
        const V t551 = t549 - t550;
        const V t552 = t551 - t537;
        const V t553 = c[2] * t539;
        const V t554 = c[3] * t543;
        const V t555 = t553 + t554;
        const V t556 = t552 - t555;
        io.im(16, t556);
        const V t557 = t552 + t555;
        io.im(4, t557);
        const V t558 = c[1] * t540;
        const V t559 = t537 + t558;
        const V t560 = c[0] * t544;
        const V t561 = t560 - t559;
        const V t562 = c[3] * t539;
        const V t563 = c[2] * t543;
        const V t564 = t562 - t563;
        const V t565 = t561 - t564;
        io.minusIm(14, t565);
        const V t566 = t561 + t564;
        io.im(12, t566);
        // spectrum block of 5, multiplier 2
        const V t567 = t542 + t546;
        const V t568 = t567 + t538;
        io.minusIm(10, t568);
        const V t569 = c[0] * t542;
        const V t570 = c[1] * t546;
        const V t571 = t569 - t570;
        const V t572 = t571 + t538;
        const V t573 = c[2] * t541;
        const V t574 = c[3] * t545;
        const V t575 = t573 + t574;
        const V t576 = t572 - t575;
        io.im(6, t576);
        const V t577 = t572 + t575;
        io.minusIm(22, t577);
        const V t578 = c[1] * t542;
        const V t579 = t538 - t578;
        const V t580 = c[0] * t546;
        const V t581 = t579 + t580;
        const V t582 = c[3] * t541;
        const V t583 = c[2] * t545;
        const V t584 = t582 - t583;
        const V t585 = t581 - t584;
        io.minusIm(20, t585);
        const V t586 = t581 + t584;
        io.im(8, t586);
        // spectrum block of 11
        const V t587 = t475 - t351;
        io.im(2, t587);
        // real block of 2
        const V t588 = t3 + t45;
        const V t589 = t3 - t45;
        // real block of 2
        const V t590 = t5 + t43;
        const V t591 = t5 - t43;
        // real block of 2
        const V t592 = t9 + t39;
        const V t593 = t9 - t39;
        // real block of 2
        const V t594 = t17 + t31;
        const V t595 = t17 - t31;
        // real block of 2
        const V t596 = t33 + t15;
        const V t597 = t33 - t15;
        // real block of 2
        const V t598 = t19 + t29;
        const V t599 = t19 - t29;
        // real block of 2
        const V t600 = t37 + t11;
        const V t601 = t37 - t11;
        // real block of 2
        const V t602 = t27 + t21;
        const V t603 = t27 - t21;
        // real block of 2
        const V t604 = t7 + t41;
        const V t605 = t7 - t41;
        // real block of 2
        const V t606 = t13 + t35;
        const V t607 = t13 - t35;
        // real block of 2
        const V t608 = t25 + t23;
        const V t609 = t25 - t23;
        // real block of 11, multiplier 2
        const V t610 = t590 + t608;
        const V t611 = t590 - t608;
        const V t612 = t606 + t592;
        const V t613 = t606 - t592;
        const V t614 = t594 + t604;
        const V t615 = t594 - t604;
        const V t616 = t596 + t602;
        const V t617 = t596 - t602;
        const V t618 = t600 + t598;
        const V t619 = t600 - t598;
        const V t620 = t610 + t612;
        const V t621 = t620 + t614;
        const V t622 = t621 + t616;
        const V t623 = t622 + t618;
        const V t624 = t623 + t588;
        const V t625 = c[4] * t610;
        const V t626 = c[5] * t612;
        const V t627 = t625 - t626;
        const V t628 = c[6] * t614;
        const V t629 = t627 - t628;
        const V t630 = c[7] * t616;
        const V t631 = t629 - t630;
        const V t632 = c[8] * t618;
        const V t633 = t631 + t632;
        const V t634 = t633 + t588;
        const V t635 = c[9] * t611;
        const V t636 = c[10] * t613;
        const V t637 = c[11] * t615;
        const V t638 = c[12] * t617;
        const V t639 = c[13] * t619;
        const V t640 = t636 + t637;
        const V t641 = t640 + t638;
        const V t642 = t641 - t635;
        const V t643 = t642 - t639;
        const V t644 = c[5] * t610;
        const V t645 = t588 - t644;
        const V t646 = c[7] * t612;
        const V t647 = t645 - t646;
        const V t648 = c[8] * t614;
        const V t649 = t647 + t648;
        const V t650 = c[6] * t616;
        const V t651 = t649 - t650;
        const V t652 = c[4] * t618;
        const V t653 = t651 + t652;
        const V t654 = c[10] * t611;
        const V t655 = c[12] * t613;
        const V t656 = c[13] * t615;
        const V t657 = c[11] * t617;
        const V t658 = c[9] * t619;
        const V t659 = t654 + t655;
        const V t660 = t659 + t656;
        const V t661 = t660 + t657;
        const V t662 = t661 + t658;
        const V t663 = c[6] * t610;
        const V t664 = t588 - t663;
        const V t665 = c[8] * t612;
        const V t666 = t664 + t665;
        const V t667 = c[5] * t614;
        const V t668 = t666 - t667;
        const V t669 = c[4] * t616;
        const V t670 = t668 + t669;
        const V t671 = c[7] * t618;
        const V t672 = t670 - t671;
        const V t673 = c[11] * t611;
        const V t674 = c[13] * t613;
        const V t675 = c[10] * t615;
        const V t676 = c[9] * t617;
        const V t677 = c[12] * t619;
        const V t678 = t673 + t674;
        const V t679 = t678 + t675;
        const V t680 = t679 - t676;
        const V t681 = t680 - t677;
        const V t682 = c[7] * t610;
        const V t683 = t588 - t682;
        const V t684 = c[6] * t612;
        const V t685 = t683 - t684;
        const V t686 = c[4] * t614;
        const V t687 = t685 + t686;
        const V t688 = c[8] * t616;
        const V t689 = t687 + t688;
        const V t690 = c[5] * t618;
        const V t691 = t689 - t690;
        const V t692 = c[12] * t611;
        const V t693 = c[11] * t613;
        const V t694 = c[9] * t615;
        const V t695 = c[13] * t617;
        const V t696 = c[10] * t619;
        const V t697 = t692 + t693;
        const V t698 = t697 + t695;
        const V t699 = t698 - t694;
        const V t700 = t699 - t696;
        const V t701 = c[8] * t610;
        const V t702 = c[4] * t612;
        const V t703 = t701 + t702;
        const V t704 = c[7] * t614;
        const V t705 = t703 - t704;
        const V t706 = c[5] * t616;
        const V t707 = t705 - t706;
        const V t708 = c[6] * t618;
        const V t709 = t707 - t708;
        const V t710 = t709 + t588;
        const V t711 = c[13] * t611;
        const V t712 = c[9] * t613;
        const V t713 = c[12] * t615;
        const V t714 = c[10] * t617;
        const V t715 = c[11] * t619;
        const V t716 = t711 + t713;
        const V t717 = t716 + t714;
        const V t718 = t717 - t712;
        const V t719 = t718 - t715;
        // real block of 11, multiplier 2
        const V t720 = t591 + t609;
        const V t721 = t591 - t609;
        const V t722 = t607 + t593;
        const V t723 = t607 - t593;
        const V t724 = t595 + t605;
        const V t725 = t595 - t605;
        const V t726 = t597 + t603;
        const V t727 = t597 - t603;
        const V t728 = t601 + t599;
        const V t729 = t601 - t599;
        const V t730 = t720 + t722;
        const V t731 = t730 + t724;
        const V t732 = t731 + t726;
        const V t733 = t732 + t728;
        const V t734 = t733 + t589;
        const V t735 = c[4] * t720;
        const V t736 = c[5] * t722;
        const V t737 = t735 - t736;
        const V t738 = c[6] * t724;
        const V t739 = t737 - t738;
        const V t740 = c[7] * t726;
        const V t741 = t739 - t740;
        const V t742 = c[8] * t728;
        const V t743 = t741 + t742;
        const V t744 = t743 + t589;
        const V t745 = c[9] * t721;
        const V t746 = c[10] * t723;
        const V t747 = c[11] * t725;
        const V t748 = c[12] * t727;
        const V t749 = c[13] * t729;
        const V t750 = t746 + t747;
        const V t751 = t750 + t748;
        const V t752 = t751 - t745;
        const V t753 = t752 - t749;
        const V t754 = c[5] * t720;
        const V t755 = t589 - t754;
        const V t756 = c[7] * t722;
        const V t757 = t755 - t756;
        const V t758 = c[8] * t724;
        const V t759 = t757 + t758;
        const V t760 = c[6] * t726;
        const V t761 = t759 - t760;
        const V t762 = c[4] * t728;
        const V t763 = t761 + t762;
        const V t764 = c[10] * t721;
        const V t765 = c[12] * t723;
        const V t766 = c[13] * t725;
        const V t767 = c[11] * t727;
        const V t768 = c[9] * t729;
        const V t769 = t764 + t765;
        const V t770 = t769 + t766;
        const V t771 = t770 + t767;
        const V t772 = t771 + t768;
        const V t773 = c[6] * t720;
        const V t774 = t589 - t773;
        const V t775 = c[8] * t722;
        const V t776 = t774 + t775;
        const V t777 = c[5] * t724;
        const V t778 = t776 - t777;
        const V t779 = c[4] * t726;
        const V t780 = t778 + t779;
        const V t781 = c[7] * t728;
        const V t782 = t780 - t781;
        const V t783 = c[11] * t721;
        const V t784 = c[13] * t723;
        const V t785 = c[10] * t725;
        const V t786 = c[9] * t727;
        const V t787 = c[12] * t729;
        const V t788 = t783 + t784;
        const V t789 = t788 + t785;
        const V t790 = t789 - t786;
        const V t791 = t790 - t787;
        const V t792 = c[7] * t720;
        const V t793 = t589 - t792;
        const V t794 = c[6] * t722;
        const V t795 = t793 - t794;
        const V t796 = c[4] * t724;
        const V t797 = t795 + t796;
        const V t798 = c[8] * t726;
        const V t799 = t797 + t798;
        const V t800 = c[5] * t728;
        const V t801 = t799 - t800;
        const V t802 = c[12] * t721;
        const V t803 = c[11] * t723;
        const V t804 = c[9] * t725;
        const V t805 = c[13] * t727;
        const V t806 = c[10] * t729;
        const V t807 = t802 + t803;
        const V t808 = t807 + t805;
        const V t809 = t808 - t804;
        const V t810 = t809 - t806;
        const V t811 = c[8] * t720;
        const V t812 = c[4] * t722;
        const V t813 = t811 + t812;
        const V t814 = c[7] * t724;
        const V t815 = t813 - t814;
        const V t816 = c[5] * t726;
        const V t817 = t815 - t816;
        const V t818 = c[6] * t728;
        const V t819 = t817 - t818;
        const V t820 = t819 + t589;
        const V t821 = c[13] * t721;
        const V t822 = c[9] * t723;
        const V t823 = c[12] * t725;
        const V t824 = c[10] * t727;
        const V t825 = c[11] * t729;
        const V t826 = t821 + t823;
        const V t827 = t826 + t824;
        const V t828 = t827 - t822;
        const V t829 = t828 - t825;
        // real block of 23, multiplier 2
        const V t830 = t1 + t624;
        io.re(23, t830);
        const V t831 = c[44] * t624;
        const V t832 = t1 - t831;
        const V t833 = c[22] * t829;
        const V t834 = c[23] * t820;
        const V t835 = t834 + t833;
        const V t836 = c[22] * t820;
        const V t837 = c[23] * t829;
        const V t838 = t837 - t836;
        const V t839 = c[24] * t643;
        const V t840 = c[25] * t634;
        const V t841 = t840 - t839;
        const V t842 = c[24] * t634;
        const V t843 = c[25] * t643;
        const V t844 = t843 + t842;
        const V t845 = c[26] * t810;
        const V t846 = c[27] * t801;
        const V t847 = t846 - t845;
        const V t848 = c[26] * t801;
        const V t849 = c[27] * t810;
        const V t850 = t849 + t848;
        const V t851 = c[28] * t662;
        const V t852 = c[29] * t653;
        const V t853 = t852 + t851;
        const V t854 = c[28] * t653;
        const V t855 = c[29] * t662;
        const V t856 = t855 - t854;
        const V t857 = c[30] * t791;
        const V t858 = c[31] * t782;
        const V t859 = t858 + t857;
        const V t860 = c[30] * t782;
        const V t861 = c[31] * t791;
        const V t862 = t861 - t860;
        const V t863 = c[32] * t681;
        const V t864 = c[33] * t672;
        const V t865 = t863 - t864;
        const V t866 = c[32] * t672;
        const V t867 = c[33] * t681;
        const V t868 = t867 + t866;
        const V t869 = c[34] * t772;
        const V t870 = c[35] * t763;
        const V t871 = t870 - t869;
        const V t872 = c[34] * t763;
        const V t873 = c[35] * t772;
        const V t874 = t873 + t872;
        const V t875 = c[36] * t700;
        const V t876 = c[37] * t691;
        const V t877 = t876 - t875;
        const V t878 = c[36] * t691;
        const V t879 = c[37] * t700;
        const V t880 = t879 + t878;
        const V t881 = c[38] * t753;
        const V t882 = c[39] * t744;
        const V t883 = t881 - t882;
        const V t884 = c[38] * t744;
        const V t885 = c[39] * t753;
        const V t886 = t885 + t884;
        const V t887 = c[40] * t719;
        const V t888 = c[41] * t710;
        const V t889 = t888 - t887;
        const V t890 = c[40] * t710;
        const V t891 = c[41] * t719;
        const V t892 = t891 + t890;
        const V t893 = c[45] * t734;
        // real block of 5
        const V t894 = t889 - t853;
        const V t895 = t853 + t889;
        const V t896 = t865 + t877;
        const V t897 = t865 - t877;
        const V t898 = t894 + t896;
        const V t899 = t898 + t841;
        const V t900 = c[0] * t894;
        const V t901 = c[1] * t896;
        const V t902 = t900 - t901;
        const V t903 = t902 + t841;
        const V t904 = c[2] * t895;
        const V t905 = c[3] * t897;
        const V t906 = t904 + t905;
        const V t907 = c[1] * t894;
        const V t908 = t841 - t907;
        const V t909 = c[0] * t896;
        const V t910 = t908 + t909;
        const V t911 = c[3] * t895;
        const V t912 = c[2] * t897;
        const V t913 = t911 - t912;
        // real block of 5
        const V t914 = t892 - t856;
        const V t915 = t856 + t892;
        const V t916 = t880 - t868;
        const V t917 = t868 + t880;
        const V t918 = t914 + t916;
        const V t919 = t918 + t844;
        const V t920 = c[0] * t914;
        const V t921 = c[1] * t916;
        const V t922 = t920 - t921;
        const V t923 = t922 + t844;
        const V t924 = c[2] * t915;
        const V t925 = c[3] * t917;
        const V t926 = t924 - t925;
        const V t927 = c[1] * t914;
        const V t928 = t844 - t927;
        const V t929 = c[0] * t916;
        const V t930 = t928 + t929;
        const V t931 = c[3] * t915;
        const V t932 = c[2] * t917;
        const V t933 = t931 + t932;
        // spectrum block of 11
        const V t934 = c[42] * t899;
        const V t935 = t832 - t934;
        const V t936 = c[14] * t933;
        const V t937 = c[15] * t930;
        const V t938 = t937 + t936;
        const V t939 = c[14] * t930;
        const V t940 = c[15] * t933;
        const V t941 = t940 - t939;
        const V t942 = c[16] * t906;
        const V t943 = c[17] * t903;
        const V t944 = t943 - t942;
        const V t945 = c[16] * t903;
        const V t946 = c[17] * t906;
        const V t947 = t946 + t945;
        const V t948 = c[18] * t926;
        const V t949 = c[19] * t923;
        const V t950 = t949 - t948;
        const V t951 = c[18] * t923;
        const V t952 = c[19] * t926;
        const V t953 = t952 + t951;
        const V t954 = c[20] * t913;
        const V t955 = c[21] * t910;
        const V t956 = t955 - t954;
        const V t957 = c[20] * t910;
        const V t958 = c[21] * t913;
        const V t959 = t958 + t957;
        const V t960 = c[43] * t919;
        // spectrum block of 2
        const V t961 = t935 - t960;
        const V t962 = t935 + t960;
        // complex block of 2
        const V t963 = t947 + t953;
        const V t964 = t944 + t950;
        const V t965 = t947 - t953;
        const V t966 = t944 - t950;
        // complex block of 2
        const V t967 = t959 - t941;
        const V t968 = t956 - t938;
        const V t969 = t959 + t941;
        const V t970 = t956 + t938;
        // spectrum block of 5, multiplier 2
        const V t971 = t964 + t968;
        const V t972 = t971 + t961;
        io.re(5, t972);
        const V t973 = c[0] * t964;
        const V t974 = c[1] * t968;
        const V t975 = t973 - t974;
        const V t976 = t975 + t961;
        const V t977 = c[2] * t963;
        const V t978 = c[3] * t967;
        const V t979 = t977 + t978;
        const V t980 = t976 - t979;
        io.re(7, t980);
        const V t981 = t976 + t979;
        io.re(19, t981);
        const V t982 = c[1] * t964;
        const V t983 = t961 - t982;
        const V t984 = c[0] * t968;
        const V t985 = t983 + t984;
        const V t986 = c[3] * t963;
        const V t987 = c[2] * t967;
        const V t988 = t986 - t987;
        const V t989 = t985 - t988;
        io.re(9, t989);
        const V t990 = t985 + t988;
        io.re(11, t990);
        // spectrum block of 5, multiplier 2
        const V t991 = t966 + t970;
        const V t992 = t991 + t962;
        io.re(13, t992);
        const V t993 = c[0] * t966;
        const V t994 = c[1] * t970;
        const V t995 = t993 - t994;
        const V t996 = t995 + t962;
        const V t997 = c[2] * t965;
        const V t998 = c[3] * t969;
        const V t999 = t997 + t998;
        const V t1000 = t996 - t999;
        io.re(17, t1000);
        const V t1001 = t996 + t999;
        io.re(1, t1001);
        const V t1002 = c[1] * t966;
        const V t1003 = t962 - t1002;
        const V t1004 = c[0] * t970;
        const V t1005 = t1003 + t1004;
        const V t1006 = c[3] * t965;
        const V t1007 = c[2] * t969;
        const V t1008 = t1006 - t1007;
        const V t1009 = t1005 - t1008;
        io.re(3, t1009);
        const V t1010 = t1005 + t1008;
        io.re(15, t1010);
        // spectrum block of 11
        const V t1011 = t832 + t899;
        io.re(21, t1011);
        // real block of 5
        const V t1012 = t874 + t838;
        const V t1013 = t874 - t838;
        const V t1014 = t862 - t850;
        const V t1015 = t862 + t850;
        const V t1016 = t1012 + t1014;
        const V t1017 = t1016 + t886;
        const V t1018 = c[0] * t1012;
        const V t1019 = c[1] * t1014;
        const V t1020 = t1018 - t1019;
        const V t1021 = t1020 + t886;
        const V t1022 = c[2] * t1013;
        const V t1023 = c[3] * t1015;
        const V t1024 = t1023 - t1022;
        const V t1025 = c[1] * t1012;
        const V t1026 = t886 - t1025;
        const V t1027 = c[0] * t1014;
        const V t1028 = t1026 + t1027;
        const V t1029 = c[3] * t1013;
        const V t1030 = c[2] * t1015;
        const V t1031 = t1029 + t1030;
        // real block of 5
        const V t1032 = t871 + t835;
        const V t1033 = t835 - t871;
        const V t1034 = t847 - t859;
        const V t1035 = t859 + t847;
        const V t1036 = t1034 - t1032;
        const V t1037 = t1036 + t883;
        const V t1038 = c[0] * t1032;
        const V t1039 = t883 - t1038;
        const V t1040 = c[1] * t1034;
        const V t1041 = t1039 - t1040;
        const V t1042 = c[2] * t1033;
        const V t1043 = c[3] * t1035;
        const V t1044 = t1042 + t1043;
        const V t1045 = c[1] * t1032;
        const V t1046 = c[0] * t1034;
        const V t1047 = t1045 + t1046;
        const V t1048 = t1047 + t883;
        const V t1049 = c[3] * t1033;
        const V t1050 = c[2] * t1035;
        const V t1051 = t1050 - t1049;
        // spectrum block of 11
        const V t1052 = c[42] * t1017;
        const V t1053 = t893 + t1052;
        const V t1054 = c[14] * t1051;
        const V t1055 = c[15] * t1048;
        const V t1056 = t1055 + t1054;
        const V t1057 = c[14] * t1048;
        const V t1058 = c[15] * t1051;
        const V t1059 = t1058 - t1057;
        const V t1060 = c[16] * t1024;
        const V t1061 = c[17] * t1021;
        const V t1062 = t1061 - t1060;
        const V t1063 = c[16] * t1021;
        const V t1064 = c[17] * t1024;
        const V t1065 = t1064 + t1063;
        const V t1066 = c[18] * t1044;
        const V t1067 = c[19] * t1041;
        const V t1068 = t1067 + t1066;
        const V t1069 = c[18] * t1041;
        const V t1070 = c[19] * t1044;
        const V t1071 = t1070 - t1069;
        const V t1072 = c[20] * t1031;
        const V t1073 = c[21] * t1028;
        const V t1074 = t1073 + t1072;
        const V t1075 = c[20] * t1028;
        const V t1076 = c[21] * t1031;
        const V t1077 = t1075 - t1076;
        const V t1078 = c[43] * t1037;
        // spectrum block of 2
        const V t1079 = t1053 + t1078;
        const V t1080 = t1078 - t1053;
        // complex block of 2
        const V t1081 = t1065 - t1071;
        const V t1082 = t1062 + t1068;
        const V t1083 = t1065 + t1071;
        const V t1084 = t1062 - t1068;
        // complex block of 2
        const V t1085 = t1077 - t1059;
        const V t1086 = t1074 - t1056;
        const V t1087 = t1077 + t1059;
        const V t1088 = t1074 + t1056;
        // spectrum block of 5, multiplier 2
        const V t1089 = t1082 + t1086;
        const V t1090 = t1089 - t1079;
        io.minusIm(5, t1090);
        const V t1091 = c[0] * t1082;
        const V t1092 = c[1] * t1086;
        const V t1093 = t1091 - t1092;
        const V t1094 = t1093 - t1079;
        const V t1095 = c[2] * t1081;
        const V t1096 = c[3] * t1085;
        const V t1097 = t1095 + t1096;
        const V t1098 = t1094 - t1097;
        io.minusIm(7, t1098);
        const V t1099 = t1094 + t1097;
        io.minusIm(19, t1099);
        const V t1100 = c[1] * t1082;
        const V t1101 = t1079 + t1100;
        const V t1102 = c[0] * t1086;
        const V t1103 = t1102 - t1101;
        const V t1104 = c[3] * t1081;
        const V t1105 = c[2] * t1085;
        const V t1106 = t1104 - t1105;
        const V t1107 = t1103 - t1106;
        io.im(9, t1107);
        const V t1108 = t1103 + t1106;
        io.minusIm(11, t1108);
        // spectrum block of 5, multiplier 2
        const V t1109 = t1084 + t1088;
        const V t1110 = t1109 + t1080;
        io.im(13, t1110);
        const V t1111 = c[0] * t1084;
        const V t1112 = c[1] * t1088;
        const V t1113 = t1111 - t1112;
        const V t1114 = t1113 + t1080;
        const V t1115 = c[2] * t1083;
        const V t1116 = c[3] * t1087;
        const V t1117 = t1115 + t1116;
        const V t1118 = t1114 - t1117;
        io.minusIm(17, t1118);
        const V t1119 = t1114 + t1117;
        io.im(1, t1119);
        const V t1120 = c[1] * t1084;
        const V t1121 = t1080 - t1120;
        const V t1122 = c[0] * t1088;
        const V t1123 = t1121 + t1122;
        const V t1124 = c[3] * t1083;
        const V t1125 = c[2] * t1087;
        const V t1126 = t1124 - t1125;
        const V t1127 = t1123 - t1126;
        io.im(3, t1127);
        const V t1128 = t1123 + t1126;
        io.minusIm(15, t1128);
        // spectrum block of 11
        const V t1129 = t1017 - t893;
        io.minusIm(21, t1129);
    }
};

}  // namespace zulg
