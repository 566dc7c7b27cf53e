// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 58.
// Hartley transform of 58 points, form F.
// 371 additions, 355 subtractions, 420 multiplications (478 with `scale`); 34 constants; 65 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<58> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.3219828698364479,  // c[6]: -Q[1] of 29
        0.21044290248272673,  // c[7]: P[1] of 29
        0.19791793485411824,  // c[8]: Q[2] of 29
        0.3298297662985413,  // c[9]: P[2] of 29
        0.012126226322052493,  // c[10]: Q[3] of 29
        0.384463442096457,  // c[11]: P[3] of 29
        0.1330720128259635,  // c[12]: -Q[4] of 29
        0.3609030660383976,  // c[13]: P[4] of 29
        0.36147698792300353,  // c[14]: -Q[5] of 29
        0.13150502224471186,  // c[15]: -P[5] of 29
        0.054028864524680344,  // c[16]: -Q[6] of 29
        0.38084126020120657,  // c[17]: P[6] of 29
        0.07274108340629196,  // c[18]: Q[7] of 29
        0.3777140697119294,  // c[19]: P[7] of 29
        0.26515058713755163,  // c[20]: Q[8] of 29
        0.2786653006997481,  // c[21]: P[8] of 29
        0.13446199615788765,  // c[22]: Q[9] of 29
        0.3603875070846735,  // c[23]: -P[9] of 29
        0.24228395147216553,  // c[24]: -Q[10] of 29
        0.2987602224736465,  // c[25]: -P[10] of 29
        0.38413584113980626,  // c[26]: Q[11] of 29
        0.019970959548377194,  // c[27]: P[11] of 29
        0.3753398540149231,  // c[28]: -Q[12] of 29
        0.08413784916151361,  // c[29]: P[12] of 29
        0.3398943908268515,  // c[30]: -Q[13] of 29
        0.1800860537573993,  // c[31]: P[13] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x29 = io.in(29);
        const V t0 = x0 + x29;
        const V t1 = x0 - x29;
        // real block of 2
        const V x2 = io.in(2);
        const V x31 = io.in(31);
        const V t2 = x2 + x31;
        const V t3 = x2 - x31;
        // real block of 2
        const V x4 = io.in(4);
        const V x33 = io.in(33);
        const V t4 = x4 + x33;
        const V t5 = x4 - x33;
        // real block of 2
        const V x6 = io.in(6);
        const V x35 = io.in(35);
        const V t6 = x6 + x35;
        const V t7 = x6 - x35;
        // real block of 2
        const V x8 = io.in(8);
        const V x37 = io.in(37);
        const V t8 = x8 + x37;
        const V t9 = x8 - x37;
        // real block of 2
        const V x10 = io.in(10);
        const V x39 = io.in(39);
        const V t10 = x10 + x39;
        const V t11 = x10 - x39;
        // real block of 2
        const V x12 = io.in(12);
        const V x41 = io.in(41);
        const V t12 = x12 + x41;
        const V t13 = x12 - x41;
        // real block of 2
        const V x14 = io.in(14);
        const V x43 = io.in(43);
        const V t14 = x14 + x43;
        const V t15 = x14 - x43;
        // real block of 2
        const V x16 = io.in(16);
        const V x45 = io.in(45);
        const V t16 = x16 + x45;
        const V t17 = x16 - x45;
        // real block of 2
        const V x18 = io.in(18);
        const V x47 = io.in(47);
        const V t18 = x18 + x47;
        const V t19 = x18 - x47;
        // real block of 2
        const V x20 = io.in(20);
        const V x49 = io.in(49);
        const V t20 = x20 + x49;
        const V t21 = x20 - x49;
        // real block of 2
        const V x22 = io.in(22);
        const V x51 = io.in(51);
        const V t22 = x22 + x51;
        const V t23 = x22 - x51;
        // real block of 2
        const V x24 = io.in(24);
        const V x53 = io.in(53);
        const V t24 = x24 + x53;
        const V t25 = x24 - x53;
        // real block of 2
        const V x26 = io.in(26);
        const V x55 = io.in(55);
        const V t26 = x26 + x55;
        const V t27 = x26 - x55;
        // real block of 2
        const V x28 = io.in(28);
        const V x57 = io.in(57);
        const V t28 = x28 + x57;
        const V t29 = x28 - x57;
        // real block of 2
        const V x30 = io.in(30);
        const V x1 = io.in(1);
        const V t30 = x30 + x1;
        const V t31 = x30 - x1;
        // real block of 2
        const V x32 = io.in(32);
        const V x3 = io.in(3);
        const V t32 = x32 + x3;
        const V t33 = x32 - x3;
        // real block of 2
        const V x34 = io.in(34);
        const V x5 = io.in(5);
        const V t34 = x34 + x5;
        const V t35 = x34 - x5;
        // real block of 2
        const V x36 = io.in(36);
        const V x7 = io.in(7);
        const V t36 = x36 + x7;
        const V t37 = x36 - x7;
        // real block of 2
        const V x38 = io.in(38);
        const V x9 = io.in(9);
        const V t38 = x38 + x9;
        const V t39 = x38 - x9;
        // real block of 2
        const V x40 = io.in(40);
        const V x11 = io.in(11);
        const V t40 = x40 + x11;
        const V t41 = x40 - x11;
        // real block of 2
        const V x42 = io.in(42);
        const V x13 = io.in(13);
        const V t42 = x42 + x13;
        const V t43 = x42 - x13;
        // real block of 2
        const V x44 = io.in(44);
        const V x15 = io.in(15);
        const V t44 = x44 + x15;
        const V t45 = x44 - x15;
        // real block of 2
        const V x46 = io.in(46);
        const V x17 = io.in(17);
        const V t46 = x46 + x17;
        const V t47 = x46 - x17;
        // real block of 2
        const V x48 = io.in(48);
        const V x19 = io.in(19);
        const V t48 = x48 + x19;
        const V t49 = x48 - x19;
        // real block of 2
        const V x50 = io.in(50);
        const V x21 = io.in(21);
        const V t50 = x50 + x21;
        const V t51 = x50 - x21;
        // real block of 2
        const V x52 = io.in(52);
        const V x23 = io.in(23);
        const V t52 = x52 + x23;
        const V t53 = x52 - x23;
        // real block of 2
        const V x54 = io.in(54);
        const V x25 = io.in(25);
        const V t54 = x54 + x25;
        const V t55 = x54 - x25;
        // real block of 2
        const V x56 = io.in(56);
        const V x27 = io.in(27);
        const V t56 = x56 + x27;
        const V t57 = x56 - x27;
        // real block of 7, multiplier 4
        const V t58 = t32 + t40;
        const V t59 = t32 - t40;
        const V t60 = t46 + t48;
        const V t61 = t46 - t48;
        const V t62 = t50 + t14;
        const V t63 = t50 - t14;
        const V t64 = t58 + t60;
        const V t65 = t64 + t62;
        const V t66 = t65 + t2;
        const V t67 = c[0] * t58;
        const V t68 = t2 - t67;
        const V t69 = c[1] * t60;
        const V t70 = t68 + t69;
        const V t71 = c[2] * t62;
        const V t72 = t70 - t71;
        const V t73 = c[3] * t59;
        const V t74 = c[4] * t61;
        const V t75 = c[5] * t63;
        const V t76 = t73 + t74;
        const V t77 = t76 - t75;
        const V t78 = c[1] * t58;
        const V t79 = c[2] * t60;
        const V t80 = t78 - t79;
        const V t81 = c[0] * t62;
        const V t82 = t80 - t81;
        const V t83 = t82 + t2;
        const V t84 = c[4] * t59;
        const V t85 = c[5] * t61;
        const V t86 = c[3] * t63;
        const V t87 = t85 + t86;
        const V t88 = t87 - t84;
        const V t89 = c[2] * t58;
        const V t90 = t2 - t89;
        const V t91 = c[0] * t60;
        const V t92 = t90 - t91;
        const V t93 = c[1] * t62;
        const V t94 = t92 + t93;
        const V t95 = c[5] * t59;
        const V t96 = c[3] * t61;
        const V t97 = c[4] * t63;
        const V t98 = t95 + t96;
        const V t99 = t98 + t97;
        // real block of 7, multiplier 4
        const V t100 = t36 + t16;
        const V t101 = t36 - t16;
        const V t102 = t30 + t54;
        const V t103 = t30 - t54;
        const V t104 = t20 + t52;
        const V t105 = t20 - t52;
        const V t106 = t100 + t102;
        const V t107 = t106 + t104;
        const V t108 = t107 + t24;
        const V t109 = c[0] * t100;
        const V t110 = t24 - t109;
        const V t111 = c[1] * t102;
        const V t112 = t110 + t111;
        const V t113 = c[2] * t104;
        const V t114 = t112 - t113;
        const V t115 = c[3] * t101;
        const V t116 = c[4] * t103;
        const V t117 = c[5] * t105;
        const V t118 = t115 + t116;
        const V t119 = t118 - t117;
        const V t120 = c[1] * t100;
        const V t121 = c[2] * t102;
        const V t122 = t120 - t121;
        const V t123 = c[0] * t104;
        const V t124 = t122 - t123;
        const V t125 = t124 + t24;
        const V t126 = c[4] * t101;
        const V t127 = c[5] * t103;
        const V t128 = c[3] * t105;
        const V t129 = t127 + t128;
        const V t130 = t129 - t126;
        const V t131 = c[2] * t100;
        const V t132 = t24 - t131;
        const V t133 = c[0] * t102;
        const V t134 = t132 - t133;
        const V t135 = c[1] * t104;
        const V t136 = t134 + t135;
        const V t137 = c[5] * t101;
        const V t138 = c[3] * t103;
        const V t139 = c[4] * t105;
        const V t140 = t137 + t138;
        const V t141 = t140 + t139;
        // real block of 7, multiplier 4
        const V t142 = t26 + t18;
        const V t143 = t26 - t18;
        const V t144 = t12 + t10;
        const V t145 = t12 - t10;
        const V t146 = t8 + t44;
        const V t147 = t8 - t44;
        const V t148 = t142 + t144;
        const V t149 = t148 + t146;
        const V t150 = t149 + t56;
        const V t151 = c[0] * t142;
        const V t152 = t56 - t151;
        const V t153 = c[1] * t144;
        const V t154 = t152 + t153;
        const V t155 = c[2] * t146;
        const V t156 = t154 - t155;
        const V t157 = c[3] * t143;
        const V t158 = c[4] * t145;
        const V t159 = c[5] * t147;
        const V t160 = t157 + t158;
        const V t161 = t160 - t159;
        const V t162 = c[1] * t142;
        const V t163 = c[2] * t144;
        const V t164 = t162 - t163;
        const V t165 = c[0] * t146;
        const V t166 = t164 - t165;
        const V t167 = t166 + t56;
        const V t168 = c[4] * t143;
        const V t169 = c[5] * t145;
        const V t170 = c[3] * t147;
        const V t171 = t169 + t170;
        const V t172 = t171 - t168;
        const V t173 = c[2] * t142;
        const V t174 = t56 - t173;
        const V t175 = c[0] * t144;
        const V t176 = t174 - t175;
        const V t177 = c[1] * t146;
        const V t178 = t176 + t177;
        const V t179 = c[5] * t143;
        const V t180 = c[3] * t145;
        const V t181 = c[4] * t147;
        const V t182 = t179 + t180;
        const V t183 = t182 + t181;
        // real block of 7, multiplier 4
        const V t184 = t22 + t42;
        const V t185 = t22 - t42;
        const V t186 = t28 + t4;
        const V t187 = t28 - t4;
        const V t188 = t38 + t6;
        const V t189 = t38 - t6;
        const V t190 = t184 + t186;
        const V t191 = t190 + t188;
        const V t192 = t191 + t34;
        const V t193 = c[0] * t184;
        const V t194 = t34 - t193;
        const V t195 = c[1] * t186;
        const V t196 = t194 + t195;
        const V t197 = c[2] * t188;
        const V t198 = t196 - t197;
        const V t199 = c[3] * t185;
        const V t200 = c[4] * t187;
        const V t201 = c[5] * t189;
        const V t202 = t199 + t200;
        const V t203 = t202 - t201;
        const V t204 = c[1] * t184;
        const V t205 = c[2] * t186;
        const V t206 = t204 - t205;
        const V t207 = c[0] * t188;
        const V t208 = t206 - t207;
        const V t209 = t208 + t34;
        const V t210 = c[4] * t185;
        const V t211 = c[5] * t187;
        const V t212 = c[3] * t189;
        const V t213 = t211 + t212;
        const V t214 = t213 - t210;
        const V t215 = c[2] * t184;
        const V t216 = t34 - t215;
        const V t217 = c[0] * t186;
        const V t218 = t216 - t217;
        const V t219 = c[1] * t188;
        const V t220 = t218 + t219;
        const V t221 = c[5] * t185;
        const V t222 = c[3] * t187;
        const V t223 = c[4] * t189;
        const V t224 = t221 + t222;
        const V t225 = t224 + t223;
        // real block of 2
        const V t226 = t66 + t150;
        const V t227 = t66 - t150;
        // real block of 2
        const V t228 = t108 + t192;
        const V t229 = t108 - t192;
        // real block of 2
        const V t230 = t226 + t228;
        const V t231 = t226 - t228;
        // complex block of 2
        const V t232 = t72 + t156;
        const V t233 = t77 + t161;
        const V t234 = t72 - t156;
        const V t235 = t77 - t161;
        // complex block of 2
        const V t236 = t114 + t198;
        const V t237 = t119 + t203;
        const V t238 = t114 - t198;
        const V t239 = t119 - t203;
        // complex block of 2
        const V t240 = t232 + t236;
        const V t241 = t233 + t237;
        const V t242 = t232 - t236;
        const V t243 = t233 - t237;
        // complex block of 2
        const V t244 = t234 - t239;
        const V t245 = t235 + t238;
        const V t246 = t234 + t239;
        const V t247 = t235 - t238;
        // complex block of 2
        const V t248 = t83 + t167;
        const V t249 = t88 + t172;
        const V t250 = t83 - t167;
        const V t251 = t88 - t172;
        // complex block of 2
        const V t252 = t125 + t209;
        const V t253 = t130 + t214;
        const V t254 = t125 - t209;
        const V t255 = t130 - t214;
        // complex block of 2
        const V t256 = t248 + t252;
        const V t257 = t249 + t253;
        const V t258 = t248 - t252;
        const V t259 = t249 - t253;
        // complex block of 2
        const V t260 = t250 - t255;
        const V t261 = t251 + t254;
        const V t262 = t250 + t255;
        const V t263 = t251 - t254;
        // complex block of 2
        const V t264 = t94 + t178;
        const V t265 = t99 + t183;
        const V t266 = t94 - t178;
        const V t267 = t99 - t183;
        // complex block of 2
        const V t268 = t136 + t220;
        const V t269 = t141 + t225;
        const V t270 = t136 - t220;
        const V t271 = t141 - t225;
        // complex block of 2
        const V t272 = t264 + t268;
        const V t273 = t265 + t269;
        const V t274 = t264 - t268;
        const V t275 = t265 - t269;
        // complex block of 2
        const V t276 = t266 - t271;
        const V t277 = t267 + t270;
        const V t278 = t266 + t271;
        const V t279 = t267 - t270;
        // real block of 29, multiplier 2
        const V t280 = t0 + t230;
        io.out(0, t280);
        const V t281 = c[32] * t230;
        const V t282 = t0 - t281;
        const V t283 = c[6] * t263;
        const V t284 = c[7] * t262;
        const V t285 = t284 + t283;
        const V t286 = c[6] * t262;
        const V t287 = c[7] * t263;
        const V t288 = t287 - t286;
        const V t289 = c[8] * t275;
        const V t290 = c[9] * t274;
        const V t291 = t290 + t289;
        const V t292 = c[8] * t274;
        const V t293 = c[9] * t275;
        const V t294 = t292 - t293;
        const V t295 = c[10] * t247;
        const V t296 = c[11] * t246;
        const V t297 = t296 + t295;
        const V t298 = c[10] * t246;
        const V t299 = c[11] * t247;
        const V t300 = t298 - t299;
        const V t301 = c[12] * t241;
        const V t302 = c[13] * t240;
        const V t303 = t302 + t301;
        const V t304 = c[12] * t240;
        const V t305 = c[13] * t241;
        const V t306 = t305 - t304;
        const V t307 = c[14] * t279;
        const V t308 = c[15] * t278;
        const V t309 = t307 - t308;
        const V t310 = c[14] * t278;
        const V t311 = c[15] * t279;
        const V t312 = t311 + t310;
        const V t313 = c[16] * t259;
        const V t314 = c[17] * t258;
        const V t315 = t314 - t313;
        const V t316 = c[16] * t258;
        const V t317 = c[17] * t259;
        const V t318 = t317 + t316;
        const V t319 = c[18] * t229;
        const V t320 = c[19] * t227;
        const V t321 = t320 - t319;
        const V t322 = c[18] * t227;
        const V t323 = c[19] * t229;
        const V t324 = t323 + t322;
        const V t325 = c[20] * t257;
        const V t326 = c[21] * t256;
        const V t327 = t326 - t325;
        const V t328 = c[20] * t256;
        const V t329 = c[21] * t257;
        const V t330 = t329 + t328;
        const V t331 = c[22] * t277;
        const V t332 = c[23] * t276;
        const V t333 = t331 - t332;
        const V t334 = c[22] * t276;
        const V t335 = c[23] * t277;
        const V t336 = t335 + t334;
        const V t337 = c[24] * t243;
        const V t338 = c[25] * t242;
        const V t339 = t338 + t337;
        const V t340 = c[24] * t242;
        const V t341 = c[25] * t243;
        const V t342 = t341 - t340;
        const V t343 = c[26] * t245;
        const V t344 = c[27] * t244;
        const V t345 = t344 - t343;
        const V t346 = c[26] * t244;
        const V t347 = c[27] * t245;
        const V t348 = t347 + t346;
        const V t349 = c[28] * t273;
        const V t350 = c[29] * t272;
        const V t351 = t350 + t349;
        const V t352 = c[28] * t272;
        const V t353 = c[29] * t273;
        const V t354 = t353 - t352;
        const V t355 = c[30] * t261;
        const V t356 = c[31] * t260;
        const V t357 = t356 - t355;
        const V t358 = c[30] * t260;
        const V t359 = c[31] * t261;
        const V t360 = t359 + t358;
        const V t361 = c[33] * t231;
        // spectrum block of 2
        const V t362 = t282 - t361;
        const V t363 = t282 + t361;
        // complex block of 2
        const V t364 = t306 - t342;
        const V t365 = t303 - t339;
        const V t366 = t306 + t342;
        const V t367 = t303 + t339;
        // complex block of 2
        const V t368 = t330 + t318;
        const V t369 = t327 + t315;
        const V t370 = t330 - t318;
        const V t371 = t327 - t315;
        // complex block of 2
        const V t372 = t354 - t294;
        const V t373 = t351 + t291;
        const V t374 = t354 + t294;
        const V t375 = t351 - t291;
        // spectrum block of 7, multiplier 2
        const V t376 = t365 + t369;
        const V t377 = t376 + t373;
        const V t378 = t377 + t362;
        const V t379 = c[1] * t365;
        const V t380 = c[2] * t369;
        const V t381 = t379 - t380;
        const V t382 = c[0] * t373;
        const V t383 = t381 - t382;
        const V t384 = t383 + t362;
        const V t385 = c[4] * t364;
        const V t386 = c[5] * t368;
        const V t387 = t385 + t386;
        const V t388 = c[3] * t372;
        const V t389 = t387 + t388;
        const V t390 = t384 - t389;
        const V t391 = t384 + t389;
        const V t392 = c[2] * t365;
        const V t393 = t362 - t392;
        const V t394 = c[0] * t369;
        const V t395 = t393 - t394;
        const V t396 = c[1] * t373;
        const V t397 = t395 + t396;
        const V t398 = c[5] * t364;
        const V t399 = c[3] * t368;
        const V t400 = t398 - t399;
        const V t401 = c[4] * t372;
        const V t402 = t400 - t401;
        const V t403 = t397 - t402;
        const V t404 = t397 + t402;
        const V t405 = c[0] * t365;
        const V t406 = t362 - t405;
        const V t407 = c[1] * t369;
        const V t408 = t406 + t407;
        const V t409 = c[2] * t373;
        const V t410 = t408 - t409;
        const V t411 = c[3] * t364;
        const V t412 = c[4] * t368;
        const V t413 = t411 - t412;
        const V t414 = c[5] * t372;
        const V t415 = t413 + t414;
        const V t416 = t410 - t415;
        const V t417 = t410 + t415;
        // spectrum block of 7, multiplier 2
        const V t418 = t367 + t371;
        const V t419 = t418 + t375;
        const V t420 = t419 + t363;
        const V t421 = c[1] * t367;
        const V t422 = c[2] * t371;
        const V t423 = t421 - t422;
        const V t424 = c[0] * t375;
        const V t425 = t423 - t424;
        const V t426 = t425 + t363;
        const V t427 = c[4] * t366;
        const V t428 = c[5] * t370;
        const V t429 = t427 + t428;
        const V t430 = c[3] * t374;
        const V t431 = t429 + t430;
        const V t432 = t426 - t431;
        const V t433 = t426 + t431;
        const V t434 = c[2] * t367;
        const V t435 = t363 - t434;
        const V t436 = c[0] * t371;
        const V t437 = t435 - t436;
        const V t438 = c[1] * t375;
        const V t439 = t437 + t438;
        const V t440 = c[5] * t366;
        const V t441 = c[3] * t370;
        const V t442 = t440 - t441;
        const V t443 = c[4] * t374;
        const V t444 = t442 - t443;
        const V t445 = t439 - t444;
        const V t446 = t439 + t444;
        const V t447 = c[0] * t367;
        const V t448 = t363 - t447;
        const V t449 = c[1] * t371;
        const V t450 = t448 + t449;
        const V t451 = c[2] * t375;
        const V t452 = t450 - t451;
        const V t453 = c[3] * t366;
        const V t454 = c[4] * t370;
        const V t455 = t453 - t454;
        const V t456 = c[5] * t374;
        const V t457 = t455 + t456;
        const V t458 = t452 - t457;
        const V t459 = t452 + t457;
        // complex block of 2
        const V t460 = t357 - t285;
        const V t461 = t288 - t360;
        const V t462 = t285 + t357;
        const V t463 = t288 + t360;
        // mirrored skew block of 14
        const V t464 = c[2] * t462;
        const V t465 = c[5] * t463;
        const V t466 = t465 + t464;
        const V t467 = c[2] * t463;
        const V t468 = c[5] * t462;
        const V t469 = t467 - t468;
        // complex block of 2
        const V t470 = t345 - t297;
        const V t471 = t300 + t348;
        const V t472 = t297 + t345;
        const V t473 = t300 - t348;
        // mirrored skew block of 14
        const V t474 = c[1] * t472;
        const V t475 = c[4] * t473;
        const V t476 = t475 + t474;
        const V t477 = c[1] * t473;
        const V t478 = c[4] * t472;
        const V t479 = t477 - t478;
        // complex block of 2
        const V t480 = t333 - t309;
        const V t481 = t336 - t312;
        const V t482 = t309 + t333;
        const V t483 = t312 + t336;
        // mirrored skew block of 14
        const V t484 = c[0] * t482;
        const V t485 = c[3] * t483;
        const V t486 = t484 - t485;
        const V t487 = c[0] * t483;
        const V t488 = c[3] * t482;
        const V t489 = t488 + t487;
        // spectrum block of 7, multiplier 2
        const V t490 = t481 + t471;
        const V t491 = t490 + t461;
        const V t492 = t491 + t324;
        const V t493 = c[1] * t481;
        const V t494 = c[2] * t471;
        const V t495 = t493 - t494;
        const V t496 = c[0] * t461;
        const V t497 = t495 - t496;
        const V t498 = t497 + t324;
        const V t499 = c[4] * t480;
        const V t500 = c[5] * t470;
        const V t501 = t499 + t500;
        const V t502 = c[3] * t460;
        const V t503 = t501 + t502;
        const V t504 = t498 + t503;
        const V t505 = t498 - t503;
        const V t506 = c[2] * t481;
        const V t507 = t324 - t506;
        const V t508 = c[0] * t471;
        const V t509 = t507 - t508;
        const V t510 = c[1] * t461;
        const V t511 = t509 + t510;
        const V t512 = c[5] * t480;
        const V t513 = c[3] * t470;
        const V t514 = t513 - t512;
        const V t515 = c[4] * t460;
        const V t516 = t514 + t515;
        const V t517 = t511 - t516;
        const V t518 = t511 + t516;
        const V t519 = c[0] * t481;
        const V t520 = t324 - t519;
        const V t521 = c[1] * t471;
        const V t522 = t520 + t521;
        const V t523 = c[2] * t461;
        const V t524 = t522 - t523;
        const V t525 = c[3] * t480;
        const V t526 = c[4] * t470;
        const V t527 = t526 - t525;
        const V t528 = c[5] * t460;
        const V t529 = t527 - t528;
        const V t530 = t524 - t529;
        const V t531 = t524 + t529;
        // spectrum block of 7, multiplier 2
        const V t532 = t486 + t476;
        const V t533 = t532 + t466;
        const V t534 = t533 + t321;
        const V t535 = c[1] * t486;
        const V t536 = c[2] * t476;
        const V t537 = t535 - t536;
        const V t538 = c[0] * t466;
        const V t539 = t537 - t538;
        const V t540 = t539 + t321;
        const V t541 = c[4] * t489;
        const V t542 = c[5] * t479;
        const V t543 = t541 - t542;
        const V t544 = c[3] * t469;
        const V t545 = t543 - t544;
        const V t546 = t540 - t545;
        const V t547 = t540 + t545;
        const V t548 = c[2] * t486;
        const V t549 = t321 - t548;
        const V t550 = c[0] * t476;
        const V t551 = t549 - t550;
        const V t552 = c[1] * t466;
        const V t553 = t551 + t552;
        const V t554 = c[5] * t489;
        const V t555 = c[3] * t479;
        const V t556 = t554 + t555;
        const V t557 = c[4] * t469;
        const V t558 = t556 + t557;
        const V t559 = t553 - t558;
        const V t560 = t553 + t558;
        const V t561 = c[0] * t486;
        const V t562 = t321 - t561;
        const V t563 = c[1] * t476;
        const V t564 = t562 + t563;
        const V t565 = c[2] * t466;
        const V t566 = t564 - t565;
        const V t567 = c[3] * t489;
        const V t568 = c[4] * t479;
        const V t569 = t567 + t568;
        const V t570 = c[5] * t469;
        const V t571 = t569 - t570;
        const V t572 = t566 - t571;
        const V t573 = t566 + t571;
        // real block of 7, multiplier 4
        const V t574 = t33 + t41;
        const V t575 = t33 - t41;
        const V t576 = t47 + t49;
        const V t577 = t47 - t49;
        const V t578 = t51 + t15;
        const V t579 = t51 - t15;
        const V t580 = t574 + t576;
        const V t581 = t580 + t578;
        const V t582 = t581 + t3;
        const V t583 = c[0] * t574;
        const V t584 = t3 - t583;
        const V t585 = c[1] * t576;
        const V t586 = t584 + t585;
        const V t587 = c[2] * t578;
        const V t588 = t586 - t587;
        const V t589 = c[3] * t575;
        const V t590 = c[4] * t577;
        const V t591 = c[5] * t579;
        const V t592 = t589 + t590;
        const V t593 = t592 - t591;
        const V t594 = c[1] * t574;
        const V t595 = c[2] * t576;
        const V t596 = t594 - t595;
        const V t597 = c[0] * t578;
        const V t598 = t596 - t597;
        const V t599 = t598 + t3;
        const V t600 = c[4] * t575;
        const V t601 = c[5] * t577;
        const V t602 = c[3] * t579;
        const V t603 = t601 + t602;
        const V t604 = t603 - t600;
        const V t605 = c[2] * t574;
        const V t606 = t3 - t605;
        const V t607 = c[0] * t576;
        const V t608 = t606 - t607;
        const V t609 = c[1] * t578;
        const V t610 = t608 + t609;
        const V t611 = c[5] * t575;
        const V t612 = c[3] * t577;
        const V t613 = c[4] * t579;
        const V t614 = t611 + t612;
        const V t615 = t614 + t613;
        // real block of 7, multiplier 4
        const V t616 = t37 + t17;
        const V t617 = t37 - t17;
        const V t618 = t31 + t55;
        const V t619 = t31 - t55;
        const V t620 = t21 + t53;
        const V t621 = t21 - t53;
        const V t622 = t616 + t618;
        const V t623 = t622 + t620;
        const V t624 = t623 + t25;
        const V t625 = c[0] * t616;
        const V t626 = t25 - t625;
        const V t627 = c[1] * t618;
        const V t628 = t626 + t627;
        const V t629 = c[2] * t620;
        const V t630 = t628 - t629;
        const V t631 = c[3] * t617;
        const V t632 = c[4] * t619;
        const V t633 = c[5] * t621;
        const V t634 = t631 + t632;
        const V t635 = t634 - t633;
        const V t636 = c[1] * t616;
        const V t637 = c[2] * t618;
        const V t638 = t636 - t637;
        const V t639 = c[0] * t620;
        const V t640 = t638 - t639;
        const V t641 = t640 + t25;
        const V t642 = c[4] * t617;
        const V t643 = c[5] * t619;
        const V t644 = c[3] * t621;
        const V t645 = t643 + t644;
        const V t646 = t645 - t642;
        const V t647 = c[2] * t616;
        const V t648 = t25 - t647;
        const V t649 = c[0] * t618;
        const V t650 = t648 - t649;
        const V t651 = c[1] * t620;
        const V t652 = t650 + t651;
        const V t653 = c[5] * t617;
        const V t654 = c[3] * t619;
        const V t655 = c[4] * t621;
        const V t656 = t653 + t654;
        const V t657 = t656 + t655;
        // real block of 7, multiplier 4
        const V t658 = t27 + t19;
        const V t659 = t27 - t19;
        const V t660 = t13 + t11;
        const V t661 = t13 - t11;
        const V t662 = t9 + t45;
        const V t663 = t9 - t45;
        const V t664 = t658 + t660;
        const V t665 = t664 + t662;
        const V t666 = t665 + t57;
        const V t667 = c[0] * t658;
        const V t668 = t57 - t667;
        const V t669 = c[1] * t660;
        const V t670 = t668 + t669;
        const V t671 = c[2] * t662;
        const V t672 = t670 - t671;
        const V t673 = c[3] * t659;
        const V t674 = c[4] * t661;
        const V t675 = c[5] * t663;
        const V t676 = t673 + t674;
        const V t677 = t676 - t675;
        const V t678 = c[1] * t658;
        const V t679 = c[2] * t660;
        const V t680 = t678 - t679;
        const V t681 = c[0] * t662;
        const V t682 = t680 - t681;
        const V t683 = t682 + t57;
        const V t684 = c[4] * t659;
        const V t685 = c[5] * t661;
        const V t686 = c[3] * t663;
        const V t687 = t685 + t686;
        const V t688 = t687 - t684;
        const V t689 = c[2] * t658;
        const V t690 = t57 - t689;
        const V t691 = c[0] * t660;
        const V t692 = t690 - t691;
        const V t693 = c[1] * t662;
        const V t694 = t692 + t693;
        const V t695 = c[5] * t659;
        const V t696 = c[3] * t661;
        const V t697 = c[4] * t663;
        const V t698 = t695 + t696;
        const V t699 = t698 + t697;
        // real block of 7, multiplier 4
        const V t700 = t23 + t43;
        const V t701 = t23 - t43;
        const V t702 = t29 + t5;
        const V t703 = t29 - t5;
        const V t704 = t39 + t7;
        const V t705 = t39 - t7;
        const V t706 = t700 + t702;
        const V t707 = t706 + t704;
        const V t708 = t707 + t35;
        const V t709 = c[0] * t700;
        const V t710 = t35 - t709;
        const V t711 = c[1] * t702;
        const V t712 = t710 + t711;
        const V t713 = c[2] * t704;
        const V t714 = t712 - t713;
        const V t715 = c[3] * t701;
        const V t716 = c[4] * t703;
        const V t717 = c[5] * t705;
        const V t718 = t715 + t716;
        const V t719 = t718 - t717;
        const V t720 = c[1] * t700;
        const V t721 = c[2] * t702;
        const V t722 = t720 - t721;
        const V t723 = c[0] * t704;
        const V t724 = t722 - t723;
        const V t725 = t724 + t35;
        const V t726 = c[4] * t701;
        const V t727 = c[5] * t703;
        const V t728 = c[3] * t705;
        const V t729 = t727 + t728;
        const V t730 = t729 - t726;
        const V t731 = c[2] * t700;
        const V t732 = t35 - t731;
        const V t733 = c[0] * t702;
        const V t734 = t732 - t733;
        const V t735 = c[1] * t704;
        const V t736 = t734 + t735;
        const V t737 = c[5] * t701;
        const V t738 = c[3] * t703;
        const V t739 = c[4] * t705;
        const V t740 = t737 + t738;
        const V t741 = t740 + t739;
        // real block of 2
        const V t742 = t582 + t666;
        const V t743 = t582 - t666;
        // real block of 2
        const V t744 = t624 + t708;
        const V t745 = t624 - t708;
        // real block of 2
        const V t746 = t742 + t744;
        const V t747 = t742 - t744;
        // complex block of 2
        const V t748 = t588 + t672;
        const V t749 = t593 + t677;
        const V t750 = t588 - t672;
        const V t751 = t593 - t677;
        // complex block of 2
        const V t752 = t630 + t714;
        const V t753 = t635 + t719;
        const V t754 = t630 - t714;
        const V t755 = t635 - t719;
        // complex block of 2
        const V t756 = t748 + t752;
        const V t757 = t749 + t753;
        const V t758 = t748 - t752;
        const V t759 = t749 - t753;
        // complex block of 2
        const V t760 = t750 - t755;
        const V t761 = t751 + t754;
        const V t762 = t750 + t755;
        const V t763 = t751 - t754;
        // complex block of 2
        const V t764 = t599 + t683;
        const V t765 = t604 + t688;
        const V t766 = t599 - t683;
        const V t767 = t604 - t688;
        // complex block of 2
        const V t768 = t641 + t725;
        const V t769 = t646 + t730;
        const V t770 = t641 - t725;
        const V t771 = t646 - t730;
        // complex block of 2
        const V t772 = t764 + t768;
        const V t773 = t765 + t769;
        const V t774 = t764 - t768;
        const V t775 = t765 - t769;
        // complex block of 2
        const V t776 = t766 - t771;
        const V t777 = t767 + t770;
        const V t778 = t766 + t771;
        const V t779 = t767 - t770;
        // complex block of 2
        const V t780 = t610 + t694;
        const V t781 = t615 + t699;
        const V t782 = t610 - t694;
        const V t783 = t615 - t699;
        // complex block of 2
        const V t784 = t652 + t736;
        const V t785 = t657 + t741;
        const V t786 = t652 - t736;
        const V t787 = t657 - t741;
        // complex block of 2
        const V t788 = t780 + t784;
        const V t789 = t781 + t785;
        const V t790 = t780 - t784;
        const V t791 = t781 - t785;
        // complex block of 2
        const V t792 = t782 - t787;
        const V t793 = t783 + t786;
        const V t794 = t782 + t787;
        const V t795 = t783 - t786;
        // real block of 29, multiplier 2
        const V t796 = t1 + t746;
        io.out(29, t796);
        const V t797 = c[32] * t746;
        const V t798 = t1 - t797;
        const V t799 = c[6] * t779;
        const V t800 = c[7] * t778;
        const V t801 = t800 + t799;
        const V t802 = c[6] * t778;
        const V t803 = c[7] * t779;
        const V t804 = t803 - t802;
        const V t805 = c[8] * t791;
        const V t806 = c[9] * t790;
        const V t807 = t806 + t805;
        const V t808 = c[8] * t790;
        const V t809 = c[9] * t791;
        const V t810 = t808 - t809;
        const V t811 = c[10] * t763;
        const V t812 = c[11] * t762;
        const V t813 = t812 + t811;
        const V t814 = c[10] * t762;
        const V t815 = c[11] * t763;
        const V t816 = t814 - t815;
        const V t817 = c[12] * t757;
        const V t818 = c[13] * t756;
        const V t819 = t818 + t817;
        const V t820 = c[12] * t756;
        const V t821 = c[13] * t757;
        const V t822 = t821 - t820;
        const V t823 = c[14] * t795;
        const V t824 = c[15] * t794;
        const V t825 = t823 - t824;
        const V t826 = c[14] * t794;
        const V t827 = c[15] * t795;
        const V t828 = t827 + t826;
        const V t829 = c[16] * t775;
        const V t830 = c[17] * t774;
        const V t831 = t830 - t829;
        const V t832 = c[16] * t774;
        const V t833 = c[17] * t775;
        const V t834 = t833 + t832;
        const V t835 = c[18] * t745;
        const V t836 = c[19] * t743;
        const V t837 = t836 - t835;
        const V t838 = c[18] * t743;
        const V t839 = c[19] * t745;
        const V t840 = t839 + t838;
        const V t841 = c[20] * t773;
        const V t842 = c[21] * t772;
        const V t843 = t842 - t841;
        const V t844 = c[20] * t772;
        const V t845 = c[21] * t773;
        const V t846 = t845 + t844;
        const V t847 = c[22] * t793;
        const V t848 = c[23] * t792;
        const V t849 = t847 - t848;
        const V t850 = c[22] * t792;
        const V t851 = c[23] * t793;
        const V t852 = t851 + t850;
        const V t853 = c[24] * t759;
        const V t854 = c[25] * t758;
        const V t855 = t854 + t853;
        const V t856 = c[24] * t758;
        const V t857 = c[25] * t759;
        const V t858 = t857 - t856;
        const V t859 = c[26] * t761;
        const V t860 = c[27] * t760;
        const V t861 = t860 - t859;
        const V t862 = c[26] * t760;
        const V t863 = c[27] * t761;
        const V t864 = t863 + t862;
        const V t865 = c[28] * t789;
        const V t866 = c[29] * t788;
        const V t867 = t866 + t865;
        const V t868 = c[28] * t788;
        const V t869 = c[29] * t789;
        const V t870 = t869 - t868;
        const V t871 = c[30] * t777;
        const V t872 = c[31] * t776;
        const V t873 = t872 - t871;
        const V t874 = c[30] * t776;
        const V t875 = c[31] * t777;
        const V t876 = t875 + t874;
        const V t877 = c[33] * t747;
        // spectrum block of 2
        const V t878 = t798 - t877;
        const V t879 = t798 + t877;
        // complex block of 2
        const V t880 = t822 - t858;
        const V t881 = t819 - t855;
        const V t882 = t822 + t858;
        const V t883 = t819 + t855;
        // complex block of 2
        const V t884 = t846 + t834;
        const V t885 = t843 + t831;
        const V t886 = t846 - t834;
        const V t887 = t843 - t831;
        // complex block of 2
        const V t888 = t870 - t810;
        const V t889 = t867 + t807;
        const V t890 = t870 + t810;
        const V t891 = t867 - t807;
        // spectrum block of 7, multiplier 2
        const V t892 = t881 + t885;
        const V t893 = t892 + t889;
        const V t894 = t893 + t878;
        const V t895 = c[1] * t881;
        const V t896 = c[2] * t885;
        const V t897 = t895 - t896;
        const V t898 = c[0] * t889;
        const V t899 = t897 - t898;
        const V t900 = t899 + t878;
        const V t901 = c[4] * t880;
        const V t902 = c[5] * t884;
        const V t903 = t901 + t902;
        const V t904 = c[3] * t888;
        const V t905 = t903 + t904;
        const V t906 = t900 - t905;
        const V t907 = t900 + t905;
        const V t908 = c[2] * t881;
        const V t909 = t878 - t908;
        const V t910 = c[0] * t885;
        const V t911 = t909 - t910;
        const V t912 = c[1] * t889;
        const V t913 = t911 + t912;
        const V t914 = c[5] * t880;
        const V t915 = c[3] * t884;
        const V t916 = t914 - t915;
        const V t917 = c[4] * t888;
        const V t918 = t916 - t917;
        const V t919 = t913 - t918;
        const V t920 = t913 + t918;
        const V t921 = c[0] * t881;
        const V t922 = t878 - t921;
        const V t923 = c[1] * t885;
        const V t924 = t922 + t923;
        const V t925 = c[2] * t889;
        const V t926 = t924 - t925;
        const V t927 = c[3] * t880;
        const V t928 = c[4] * t884;
        const V t929 = t927 - t928;
        const V t930 = c[5] * t888;
        const V t931 = t929 + t930;
        const V t932 = t926 - t931;
        const V t933 = t926 + t931;
        // spectrum block of 7, multiplier 2
        const V t934 = t883 + t887;
        const V t935 = t934 + t891;
        const V t936 = t935 + t879;
        const V t937 = c[1] * t883;
        const V t938 = c[2] * t887;
        const V t939 = t937 - t938;
        const V t940 = c[0] * t891;
        const V t941 = t939 - t940;
        const V t942 = t941 + t879;
        const V t943 = c[4] * t882;
        const V t944 = c[5] * t886;
        const V t945 = t943 + t944;
        const V t946 = c[3] * t890;
        const V t947 = t945 + t946;
        const V t948 = t942 - t947;
        const V t949 = t942 + t947;
        const V t950 = c[2] * t883;
        const V t951 = t879 - t950;
        const V t952 = c[0] * t887;
        const V t953 = t951 - t952;
        const V t954 = c[1] * t891;
        const V t955 = t953 + t954;
        const V t956 = c[5] * t882;
        const V t957 = c[3] * t886;
        const V t958 = t956 - t957;
        const V t959 = c[4] * t890;
        const V t960 = t958 - t959;
        const V t961 = t955 - t960;
        const V t962 = t955 + t960;
        const V t963 = c[0] * t883;
        const V t964 = t879 - t963;
        const V t965 = c[1] * t887;
        const V t966 = t964 + t965;
        const V t967 = c[2] * t891;
        const V t968 = t966 - t967;
        const V t969 = c[3] * t882;
        const V t970 = c[4] * t886;
        const V t971 = t969 - t970;
        const V t972 = c[5] * t890;
        const V t973 = t971 + t972;
        const V t974 = t968 - t973;
        const V t975 = t968 + t973;
        // complex block of 2
        const V t976 = t873 - t801;
        const V t977 = t804 - t876;
        const V t978 = t801 + t873;
        const V t979 = t804 + t876;
        // mirrored skew block of 14
        const V t980 = c[2] * t978;
        const V t981 = c[5] * t979;
        const V t982 = t981 + t980;
        const V t983 = c[2] * t979;
        const V t984 = c[5] * t978;
        const V t985 = t983 - t984;
        // complex block of 2
        const V t986 = t861 - t813;
        const V t987 = t816 + t864;
        const V t988 = t813 + t861;
        const V t989 = t816 - t864;
        // mirrored skew block of 14
        const V t990 = c[1] * t988;
        const V t991 = c[4] * t989;
        const V t992 = t991 + t990;
        const V t993 = c[1] * t989;
        const V t994 = c[4] * t988;
        const V t995 = t993 - t994;
        // complex block of 2
        const V t996 = t849 - t825;
        const V t997 = t852 - t828;
        const V t998 = t825 + t849;
        const V t999 = t828 + t852;
        // mirrored skew block of 14
        const V t1000 = c[0] * t998;
        const V t1001 = c[3] * t999;
        const V t1002 = t1000 - t1001;
        const V t1003 = c[0] * t999;
        const V t1004 = c[3] * t998;
        const V t1005 = t1004 + t1003;
        // spectrum block of 7, multiplier 2
        const V t1006 = t997 + t987;
        const V t1007 = t1006 + t977;
        const V t1008 = t1007 + t840;
        const V t1009 = c[1] * t997;
        const V t1010 = c[2] * t987;
        const V t1011 = t1009 - t1010;
        const V t1012 = c[0] * t977;
        const V t1013 = t1011 - t1012;
        const V t1014 = t1013 + t840;
        const V t1015 = c[4] * t996;
        const V t1016 = c[5] * t986;
        const V t1017 = t1015 + t1016;
        const V t1018 = c[3] * t976;
        const V t1019 = t1017 + t1018;
        const V t1020 = t1014 + t1019;
        const V t1021 = t1014 - t1019;
        const V t1022 = c[2] * t997;
        const V t1023 = t840 - t1022;
        const V t1024 = c[0] * t987;
        const V t1025 = t1023 - t1024;
        const V t1026 = c[1] * t977;
        const V t1027 = t1025 + t1026;
        const V t1028 = c[5] * t996;
        const V t1029 = c[3] * t986;
        const V t1030 = t1029 - t1028;
        const V t1031 = c[4] * t976;
        const V t1032 = t1030 + t1031;
        const V t1033 = t1027 - t1032;
        const V t1034 = t1027 + t1032;
        const V t1035 = c[0] * t997;
        const V t1036 = t840 - t1035;
        const V t1037 = c[1] * t987;
        const V t1038 = t1036 + t1037;
        const V t1039 = c[2] * t977;
        const V t1040 = t1038 - t1039;
        const V t1041 = c[3] * t996;
        const V t1042 = c[4] * t986;
        const V t1043 = t1042 - t1041;
        const V t1044 = c[5] * t976;
        const V t1045 = t1043 - t1044;
        const V t1046 = t1040 - t1045;
        const V t1047 = t1040 + t1045;
        // spectrum block of 7, multiplier 2
        const V t1048 = t1002 + t992;
        const V t1049 = t1048 + t982;
        const V t1050 = t1049 + t837;
        const V t1051 = c[1] * t1002;
        const V t1052 = c[2] * t992;
        const V t1053 = t1051 - t1052;
        const V t1054 = c[0] * t982;
        const V t1055 = t1053 - t1054;
        const V t1056 = t1055 + t837;
        const V t1057 = c[4] * t1005;
        const V t1058 = c[5] * t995;
        const V t1059 = t1057 - t1058;
        const V t1060 = c[3] * t985;
        const V t1061 = t1059 - t1060;
        const V t1062 = t1056 - t1061;
        const V t1063 = t1056 + t1061;
        const V t1064 = c[2] * t1002;
        const V t1065 = t837 - t1064;
        const V t1066 = c[0] * t992;
        const V t1067 = t1065 - t1066;
        const V t1068 = c[1] * t982;
        const V t1069 = t1067 + t1068;
        const V t1070 = c[5] * t1005;
        const V t1071 = c[3] * t995;
        const V t1072 = t1070 + t1071;
        const V t1073 = c[4] * t985;
        const V t1074 = t1072 + t1073;
        const V t1075 = t1069 - t1074;
        const V t1076 = t1069 + t1074;
        const V t1077 = c[0] * t1002;
        const V t1078 = t837 - t1077;
        const V t1079 = c[1] * t992;
        const V t1080 = t1078 + t1079;
        const V t1081 = c[2] * t982;
        const V t1082 = t1080 - t1081;
        const V t1083 = c[3] * t1005;
        const V t1084 = c[4] * t995;
        const V t1085 = t1083 + t1084;
        const V t1086 = c[5] * t985;
        const V t1087 = t1085 - t1086;
        const V t1088 = t1082 - t1087;
        const V t1089 = t1082 + t1087;
        // output stage
        const V t1090 = t948 - t1050;
        io.out(1, t1090);
        const V t1091 = t948 + t1050;
        io.out(57, t1091);
        const V t1092 = t378 - t492;
        io.out(2, t1092);
        const V t1093 = t378 + t492;
        io.out(56, t1093);
        const V t1094 = t932 - t1034;
        io.out(3, t1094);
        const V t1095 = t932 + t1034;
        io.out(55, t1095);
        const V t1096 = t433 + t547;
        io.out(4, t1096);
        const V t1097 = t433 - t547;
        io.out(54, t1097);
        const V t1098 = t936 + t1088;
        io.out(5, t1098);
        const V t1099 = t936 - t1088;
        io.out(53, t1099);
        const V t1100 = t445 + t573;
        io.out(6, t1100);
        const V t1101 = t445 - t573;
        io.out(52, t1101);
        const V t1102 = t974 - t1062;
        io.out(7, t1102);
        const V t1103 = t974 + t1062;
        io.out(51, t1103);
        const V t1104 = t404 + t505;
        io.out(8, t1104);
        const V t1105 = t404 - t505;
        io.out(50, t1105);
        const V t1106 = t962 + t1075;
        io.out(9, t1106);
        const V t1107 = t962 - t1075;
        io.out(49, t1107);
        const V t1108 = t391 + t530;
        io.out(10, t1108);
        const V t1109 = t391 - t530;
        io.out(48, t1109);
        const V t1110 = t933 - t1033;
        io.out(11, t1110);
        const V t1111 = t933 + t1033;
        io.out(47, t1111);
        const V t1112 = t390 + t531;
        io.out(12, t1112);
        const V t1113 = t390 - t531;
        io.out(46, t1113);
        const V t1114 = t975 + t1076;
        io.out(13, t1114);
        const V t1115 = t975 - t1076;
        io.out(45, t1115);
        const V t1116 = t403 - t504;
        io.out(14, t1116);
        const V t1117 = t403 + t504;
        io.out(44, t1117);
        const V t1118 = t919 + t1020;
        io.out(15, t1118);
        const V t1119 = t919 - t1020;
        io.out(43, t1119);
        const V t1120 = t459 - t560;
        io.out(16, t1120);
        const V t1121 = t459 + t560;
        io.out(42, t1121);
        const V t1122 = t906 - t1047;
        io.out(17, t1122);
        const V t1123 = t906 + t1047;
        io.out(41, t1123);
        const V t1124 = t417 + t517;
        io.out(18, t1124);
        const V t1125 = t417 - t517;
        io.out(40, t1125);
        const V t1126 = t907 - t1046;
        io.out(19, t1126);
        const V t1127 = t907 + t1046;
        io.out(39, t1127);
        const V t1128 = t446 - t559;
        io.out(20, t1128);
        const V t1129 = t446 + t559;
        io.out(38, t1129);
        const V t1130 = t920 - t1021;
        io.out(21, t1130);
        const V t1131 = t920 + t1021;
        io.out(37, t1131);
        const V t1132 = t458 + t546;
        io.out(22, t1132);
        const V t1133 = t458 - t546;
        io.out(36, t1133);
        const V t1134 = t961 - t1089;
        io.out(23, t1134);
        const V t1135 = t961 + t1089;
        io.out(35, t1135);
        const V t1136 = t420 - t572;
        io.out(24, t1136);
        const V t1137 = t420 + t572;
        io.out(34, t1137);
        const V t1138 = t949 - t1063;
        io.out(25, t1138);
        const V t1139 = t949 + t1063;
        io.out(33, t1139);
        const V t1140 = t416 + t518;
        io.out(26, t1140);
        const V t1141 = t416 - t518;
        io.out(32, t1141);
        const V t1142 = t894 + t1008;
        io.out(27, t1142);
        const V t1143 = t894 - t1008;
        io.out(31, t1143);
        const V t1144 = t432 + t534;
        io.out(28, t1144);
        const V t1145 = t432 - t534;
        io.out(30, t1145);
    }
};

}  // namespace zulg
