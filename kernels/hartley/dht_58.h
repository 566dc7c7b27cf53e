// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 58.
// Hartley transform of 58 points, form F.
// 371 additions, 355 subtractions, 420 multiplications (478 with `scale`); 34 constants; 140 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<58> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 16/7
        0.9009688679024191,  // c[1]: -cos 2 pi 4/7
        0.6234898018587335,  // c[2]: cos 2 pi 20/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.1330720128259635,  // c[6]: -Q[4] of 29
        0.24228395147216553,  // c[7]: -Q[10] of 29
        0.019970959548377194,  // c[8]: P[11] of 29
        0.38413584113980626,  // c[9]: Q[11] of 29
        0.384463442096457,  // c[10]: P[3] of 29
        0.012126226322052493,  // c[11]: Q[3] of 29
        0.26515058713755163,  // c[12]: Q[8] of 29
        0.054028864524680344,  // c[13]: -Q[6] of 29
        0.1800860537573993,  // c[14]: P[13] of 29
        0.3398943908268515,  // c[15]: -Q[13] of 29
        0.21044290248272673,  // c[16]: P[1] of 29
        0.3219828698364479,  // c[17]: -Q[1] of 29
        0.3603875070846735,  // c[18]: -P[9] of 29
        0.13446199615788765,  // c[19]: Q[9] of 29
        0.13150502224471186,  // c[20]: -P[5] of 29
        0.36147698792300353,  // c[21]: -Q[5] of 29
        0.3609030660383976,  // c[22]: P[4] of 29
        0.2987602224736465,  // c[23]: -P[10] of 29
        0.38084126020120657,  // c[24]: P[6] of 29
        0.2786653006997481,  // c[25]: P[8] of 29
        0.19791793485411824,  // c[26]: Q[2] of 29
        0.3298297662985413,  // c[27]: P[2] of 29
        0.3753398540149231,  // c[28]: -Q[12] of 29
        0.08413784916151361,  // c[29]: P[12] of 29
        0.07274108340629196,  // c[30]: Q[7] of 29
        0.3777140697119294,  // c[31]: P[7] of 29
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
        const V x30 = io.in(30);
        const V x1 = io.in(1);
        const V t2 = x30 + x1;
        const V t3 = x30 - x1;
        // real block of 2
        const V x54 = io.in(54);
        const V x25 = io.in(25);
        const V t4 = x54 + x25;
        const V t5 = x54 - x25;
        // real block of 7, multiplier 4
        const V t6 = t2 + t4;
        const V t7 = t2 - t4;
        // real block of 7, multiplier 4
        const V t8 = t3 + t5;
        const V t9 = t3 - t5;
        // real block of 2
        const V x36 = io.in(36);
        const V x7 = io.in(7);
        const V t10 = x36 + x7;
        const V t11 = x36 - x7;
        // real block of 2
        const V x16 = io.in(16);
        const V x45 = io.in(45);
        const V t12 = x16 + x45;
        const V t13 = x16 - x45;
        // real block of 7, multiplier 4
        const V t14 = t10 + t12;
        const V t15 = t10 - t12;
        // real block of 7, multiplier 4
        const V t16 = t11 + t13;
        const V t17 = t11 - t13;
        // real block of 2
        const V x20 = io.in(20);
        const V x49 = io.in(49);
        const V t18 = x20 + x49;
        const V t19 = x20 - x49;
        // real block of 2
        const V x52 = io.in(52);
        const V x23 = io.in(23);
        const V t20 = x52 + x23;
        const V t21 = x52 - x23;
        // real block of 7, multiplier 4
        const V t22 = t18 - t20;
        // real block of 7, multiplier 4
        const V t23 = t19 - t21;
        // real block of 2
        const V x24 = io.in(24);
        const V x53 = io.in(53);
        const V t24 = x24 + x53;
        const V t25 = x24 - x53;
        // real block of 7, multiplier 4
        const V t26 = t18 + t20;
        const V t27 = c[0] * t26;
        const V t28 = c[1] * t26;
        const V t29 = c[2] * t26;
        const V t30 = t14 + t6;
        const V t31 = c[1] * t14;
        const V t32 = t24 - t31;
        const V t33 = c[2] * t6;
        const V t34 = c[3] * t15;
        const V t35 = c[4] * t7;
        const V t36 = t34 + t35;
        const V t37 = c[5] * t22;
        const V t38 = c[2] * t14;
        const V t39 = c[0] * t6;
        const V t40 = t38 - t39;
        const V t41 = c[4] * t15;
        const V t42 = c[5] * t7;
        const V t43 = c[3] * t22;
        const V t44 = t42 + t43;
        const V t45 = c[0] * t14;
        const V t46 = t24 - t45;
        const V t47 = c[1] * t6;
        const V t48 = c[5] * t15;
        const V t49 = c[3] * t7;
        const V t50 = t48 + t49;
        const V t51 = c[4] * t22;
        // real block of 7, multiplier 4
        const V t52 = t19 + t21;
        const V t53 = c[0] * t52;
        const V t54 = c[1] * t52;
        const V t55 = c[2] * t52;
        const V t56 = t16 + t8;
        const V t57 = c[1] * t16;
        const V t58 = t25 - t57;
        const V t59 = c[2] * t8;
        const V t60 = c[3] * t17;
        const V t61 = c[4] * t9;
        const V t62 = t60 + t61;
        const V t63 = c[5] * t23;
        const V t64 = c[2] * t16;
        const V t65 = c[0] * t8;
        const V t66 = t64 - t65;
        const V t67 = c[4] * t17;
        const V t68 = c[5] * t9;
        const V t69 = c[3] * t23;
        const V t70 = t68 + t69;
        const V t71 = c[0] * t16;
        const V t72 = t25 - t71;
        const V t73 = c[1] * t8;
        const V t74 = c[5] * t17;
        const V t75 = c[3] * t9;
        const V t76 = t74 + t75;
        const V t77 = c[4] * t23;
        // real block of 2
        const V x2 = io.in(2);
        const V x31 = io.in(31);
        const V t78 = x2 + x31;
        const V t79 = x2 - x31;
        // real block of 2
        const V x32 = io.in(32);
        const V x3 = io.in(3);
        const V t80 = x32 + x3;
        const V t81 = x32 - x3;
        // real block of 2
        const V x40 = io.in(40);
        const V x11 = io.in(11);
        const V t82 = x40 + x11;
        const V t83 = x40 - x11;
        // real block of 7, multiplier 4
        const V t84 = t80 + t82;
        const V t85 = t80 - t82;
        // real block of 7, multiplier 4
        const V t86 = t81 + t83;
        const V t87 = t81 - t83;
        // real block of 2
        const V x14 = io.in(14);
        const V x43 = io.in(43);
        const V t88 = x14 + x43;
        const V t89 = x14 - x43;
        // real block of 2
        const V x50 = io.in(50);
        const V x21 = io.in(21);
        const V t90 = x50 + x21;
        const V t91 = x50 - x21;
        // real block of 7, multiplier 4
        const V t92 = t90 - t88;
        // real block of 7, multiplier 4
        const V t93 = t91 - t89;
        // real block of 2
        const V x46 = io.in(46);
        const V x17 = io.in(17);
        const V t94 = x46 + x17;
        const V t95 = x46 - x17;
        // real block of 2
        const V x48 = io.in(48);
        const V x19 = io.in(19);
        const V t96 = x48 + x19;
        const V t97 = x48 - x19;
        // real block of 7, multiplier 4
        const V t98 = t94 + t96;
        const V t99 = t94 - t96;
        // real block of 7, multiplier 4
        const V t100 = t95 + t97;
        const V t101 = t95 - t97;
        // real block of 7, multiplier 4
        const V t102 = t90 + t88;
        const V t103 = c[0] * t102;
        const V t104 = c[1] * t102;
        const V t105 = c[2] * t102;
        const V t106 = t84 + t98;
        const V t107 = c[1] * t84;
        const V t108 = t78 - t107;
        const V t109 = c[2] * t98;
        const V t110 = c[3] * t85;
        const V t111 = c[4] * t99;
        const V t112 = t110 + t111;
        const V t113 = c[5] * t92;
        const V t114 = c[2] * t84;
        const V t115 = c[0] * t98;
        const V t116 = t114 - t115;
        const V t117 = c[4] * t85;
        const V t118 = c[5] * t99;
        const V t119 = c[3] * t92;
        const V t120 = t118 + t119;
        const V t121 = c[0] * t84;
        const V t122 = t78 - t121;
        const V t123 = c[1] * t98;
        const V t124 = c[5] * t85;
        const V t125 = c[3] * t99;
        const V t126 = t124 + t125;
        const V t127 = c[4] * t92;
        // real block of 7, multiplier 4
        const V t128 = t91 + t89;
        const V t129 = c[0] * t128;
        const V t130 = c[1] * t128;
        const V t131 = c[2] * t128;
        const V t132 = t86 + t100;
        const V t133 = c[1] * t86;
        const V t134 = t79 - t133;
        const V t135 = c[2] * t100;
        const V t136 = c[3] * t87;
        const V t137 = c[4] * t101;
        const V t138 = t136 + t137;
        const V t139 = c[5] * t93;
        const V t140 = c[2] * t86;
        const V t141 = c[0] * t100;
        const V t142 = t140 - t141;
        const V t143 = c[4] * t87;
        const V t144 = c[5] * t101;
        const V t145 = c[3] * t93;
        const V t146 = t144 + t145;
        const V t147 = c[0] * t86;
        const V t148 = t79 - t147;
        const V t149 = c[1] * t100;
        const V t150 = c[5] * t87;
        const V t151 = c[3] * t101;
        const V t152 = t150 + t151;
        const V t153 = c[4] * t93;
        // real block of 2
        const V x4 = io.in(4);
        const V x33 = io.in(33);
        const V t154 = x4 + x33;
        const V t155 = x4 - x33;
        // real block of 2
        const V x28 = io.in(28);
        const V x57 = io.in(57);
        const V t156 = x28 + x57;
        const V t157 = x28 - x57;
        // real block of 7, multiplier 4
        const V t158 = t156 + t154;
        const V t159 = t156 - t154;
        // real block of 7, multiplier 4
        const V t160 = t157 + t155;
        const V t161 = t157 - t155;
        // real block of 2
        const V x34 = io.in(34);
        const V x5 = io.in(5);
        const V t162 = x34 + x5;
        const V t163 = x34 - x5;
        // real block of 2
        const V x6 = io.in(6);
        const V x35 = io.in(35);
        const V t164 = x6 + x35;
        const V t165 = x6 - x35;
        // real block of 2
        const V x38 = io.in(38);
        const V x9 = io.in(9);
        const V t166 = x38 + x9;
        const V t167 = x38 - x9;
        // real block of 7, multiplier 4
        const V t168 = t166 - t164;
        // real block of 7, multiplier 4
        const V t169 = t167 - t165;
        // real block of 2
        const V x42 = io.in(42);
        const V x13 = io.in(13);
        const V t170 = x42 + x13;
        const V t171 = x42 - x13;
        // real block of 2
        const V x22 = io.in(22);
        const V x51 = io.in(51);
        const V t172 = x22 + x51;
        const V t173 = x22 - x51;
        // real block of 7, multiplier 4
        const V t174 = t172 + t170;
        const V t175 = t172 - t170;
        // real block of 7, multiplier 4
        const V t176 = t173 + t171;
        const V t177 = t173 - t171;
        // real block of 7, multiplier 4
        const V t178 = t166 + t164;
        const V t179 = c[0] * t178;
        const V t180 = c[1] * t178;
        const V t181 = c[2] * t178;
        const V t182 = t174 + t158;
        const V t183 = c[1] * t174;
        const V t184 = t162 - t183;
        const V t185 = c[2] * t158;
        const V t186 = c[3] * t175;
        const V t187 = c[4] * t159;
        const V t188 = t186 + t187;
        const V t189 = c[5] * t168;
        const V t190 = c[2] * t174;
        const V t191 = c[0] * t158;
        const V t192 = t190 - t191;
        const V t193 = c[4] * t175;
        const V t194 = c[5] * t159;
        const V t195 = c[3] * t168;
        const V t196 = t194 + t195;
        const V t197 = c[0] * t174;
        const V t198 = t162 - t197;
        const V t199 = c[1] * t158;
        const V t200 = c[5] * t175;
        const V t201 = c[3] * t159;
        const V t202 = t200 + t201;
        const V t203 = c[4] * t168;
        // real block of 7, multiplier 4
        const V t204 = t167 + t165;
        const V t205 = c[0] * t204;
        const V t206 = c[1] * t204;
        const V t207 = c[2] * t204;
        const V t208 = t176 + t160;
        const V t209 = c[1] * t176;
        const V t210 = t163 - t209;
        const V t211 = c[2] * t160;
        const V t212 = c[3] * t177;
        const V t213 = c[4] * t161;
        const V t214 = t212 + t213;
        const V t215 = c[5] * t169;
        const V t216 = c[2] * t176;
        const V t217 = c[0] * t160;
        const V t218 = t216 - t217;
        const V t219 = c[4] * t177;
        const V t220 = c[5] * t161;
        const V t221 = c[3] * t169;
        const V t222 = t220 + t221;
        const V t223 = c[0] * t176;
        const V t224 = t163 - t223;
        const V t225 = c[1] * t160;
        const V t226 = c[5] * t177;
        const V t227 = c[3] * t161;
        const V t228 = t226 + t227;
        const V t229 = c[4] * t169;
        // real block of 2
        const V x8 = io.in(8);
        const V x37 = io.in(37);
        const V t230 = x8 + x37;
        const V t231 = x8 - x37;
        // real block of 2
        const V x44 = io.in(44);
        const V x15 = io.in(15);
        const V t232 = x44 + x15;
        const V t233 = x44 - x15;
        // real block of 7, multiplier 4
        const V t234 = t230 - t232;
        // real block of 7, multiplier 4
        const V t235 = t231 - t233;
        // real block of 2
        const V x10 = io.in(10);
        const V x39 = io.in(39);
        const V t236 = x10 + x39;
        const V t237 = x10 - x39;
        // real block of 2
        const V x12 = io.in(12);
        const V x41 = io.in(41);
        const V t238 = x12 + x41;
        const V t239 = x12 - x41;
        // real block of 7, multiplier 4
        const V t240 = t238 + t236;
        const V t241 = t238 - t236;
        // real block of 7, multiplier 4
        const V t242 = t239 + t237;
        const V t243 = t239 - t237;
        // real block of 2
        const V x18 = io.in(18);
        const V x47 = io.in(47);
        const V t244 = x18 + x47;
        const V t245 = x18 - x47;
        // real block of 2
        const V x26 = io.in(26);
        const V x55 = io.in(55);
        const V t246 = x26 + x55;
        const V t247 = x26 - x55;
        // real block of 7, multiplier 4
        const V t248 = t246 + t244;
        const V t249 = t246 - t244;
        // real block of 7, multiplier 4
        const V t250 = t247 + t245;
        const V t251 = t247 - t245;
        // real block of 2
        const V x56 = io.in(56);
        const V x27 = io.in(27);
        const V t252 = x56 + x27;
        const V t253 = x56 - x27;
        // real block of 7, multiplier 4
        const V t254 = t230 + t232;
        const V t255 = c[0] * t254;
        const V t256 = c[1] * t254;
        const V t257 = c[2] * t254;
        const V t258 = t248 + t240;
        const V t259 = c[1] * t248;
        const V t260 = t252 - t259;
        const V t261 = c[2] * t240;
        const V t262 = c[3] * t249;
        const V t263 = c[4] * t241;
        const V t264 = t262 + t263;
        const V t265 = c[5] * t234;
        const V t266 = c[2] * t248;
        const V t267 = c[0] * t240;
        const V t268 = t266 - t267;
        const V t269 = c[4] * t249;
        const V t270 = c[5] * t241;
        const V t271 = c[3] * t234;
        const V t272 = t270 + t271;
        const V t273 = c[0] * t248;
        const V t274 = t252 - t273;
        const V t275 = c[1] * t240;
        const V t276 = c[5] * t249;
        const V t277 = c[3] * t241;
        const V t278 = t276 + t277;
        const V t279 = c[4] * t234;
        // real block of 7, multiplier 4
        const V t280 = t231 + t233;
        const V t281 = c[0] * t280;
        const V t282 = c[1] * t280;
        const V t283 = c[2] * t280;
        const V t284 = t250 + t242;
        const V t285 = c[1] * t250;
        const V t286 = t253 - t285;
        const V t287 = c[2] * t242;
        const V t288 = c[3] * t251;
        const V t289 = c[4] * t243;
        const V t290 = t288 + t289;
        const V t291 = c[5] * t235;
        const V t292 = c[2] * t250;
        const V t293 = c[0] * t242;
        const V t294 = t292 - t293;
        const V t295 = c[4] * t251;
        const V t296 = c[5] * t243;
        const V t297 = c[3] * t235;
        const V t298 = t296 + t297;
        const V t299 = c[0] * t250;
        const V t300 = t253 - t299;
        const V t301 = c[1] * t242;
        const V t302 = c[5] * t251;
        const V t303 = c[3] * t243;
        const V t304 = t302 + t303;
        const V t305 = c[4] * t235;
        // real block of 7, multiplier 4
        const V t306 = t106 + t102;
        const V t307 = t306 + t78;
        // real block of 7, multiplier 4
        const V t308 = t30 + t26;
        const V t309 = t308 + t24;
        // real block of 7, multiplier 4
        const V t310 = t258 + t254;
        const V t311 = t310 + t252;
        // real block of 7, multiplier 4
        const V t312 = t182 + t178;
        const V t313 = t312 + t162;
        // real block of 2
        const V t314 = t307 + t311;
        // real block of 2
        const V t315 = t309 + t313;
        // real block of 2
        const V t316 = t314 + t315;
        const V t317 = t314 - t315;
        // real block of 2
        const V t318 = t307 - t311;
        // real block of 2
        const V t319 = t309 - t313;
        // real block of 7, multiplier 4
        const V t320 = t108 + t109;
        const V t321 = t320 - t103;
        // real block of 7, multiplier 4
        const V t322 = t260 + t261;
        const V t323 = t322 - t255;
        // complex block of 2
        const V t324 = t321 - t323;
        // real block of 7, multiplier 4
        const V t325 = t112 - t113;
        // real block of 7, multiplier 4
        const V t326 = t264 - t265;
        // complex block of 2
        const V t327 = t325 + t326;
        const V t328 = t325 - t326;
        // real block of 7, multiplier 4
        const V t329 = t32 + t33;
        const V t330 = t329 - t27;
        // real block of 7, multiplier 4
        const V t331 = t184 + t185;
        const V t332 = t331 - t179;
        // complex block of 2
        const V t333 = t330 - t332;
        // real block of 7, multiplier 4
        const V t334 = t36 - t37;
        // real block of 7, multiplier 4
        const V t335 = t188 - t189;
        // complex block of 2
        const V t336 = t334 + t335;
        const V t337 = t334 - t335;
        // complex block of 2
        const V t338 = t321 + t323;
        // complex block of 2
        const V t339 = t330 + t332;
        // complex block of 2
        const V t340 = t338 + t339;
        const V t341 = t338 - t339;
        const V t342 = t327 + t336;
        // real block of 29, multiplier 2
        const V t343 = c[6] * t342;
        // complex block of 2
        const V t344 = t327 - t336;
        // real block of 29, multiplier 2
        const V t345 = c[7] * t344;
        // complex block of 2
        const V t346 = t324 - t337;
        // real block of 29, multiplier 2
        const V t347 = c[8] * t346;
        const V t348 = c[9] * t346;
        // complex block of 2
        const V t349 = t328 + t333;
        // real block of 29, multiplier 2
        const V t350 = c[9] * t349;
        const V t351 = c[8] * t349;
        // complex block of 2
        const V t352 = t324 + t337;
        // real block of 29, multiplier 2
        const V t353 = c[10] * t352;
        const V t354 = c[11] * t352;
        // complex block of 2
        const V t355 = t328 - t333;
        // real block of 29, multiplier 2
        const V t356 = c[11] * t355;
        const V t357 = c[10] * t355;
        // real block of 7, multiplier 4
        const V t358 = t116 - t104;
        const V t359 = t358 + t78;
        // real block of 7, multiplier 4
        const V t360 = t268 - t256;
        const V t361 = t360 + t252;
        // complex block of 2
        const V t362 = t359 - t361;
        // real block of 7, multiplier 4
        const V t363 = t120 - t117;
        // real block of 7, multiplier 4
        const V t364 = t272 - t269;
        // complex block of 2
        const V t365 = t363 + t364;
        const V t366 = t363 - t364;
        // real block of 7, multiplier 4
        const V t367 = t40 - t28;
        const V t368 = t367 + t24;
        // real block of 7, multiplier 4
        const V t369 = t192 - t180;
        const V t370 = t369 + t162;
        // complex block of 2
        const V t371 = t368 - t370;
        // real block of 7, multiplier 4
        const V t372 = t44 - t41;
        // real block of 7, multiplier 4
        const V t373 = t196 - t193;
        // complex block of 2
        const V t374 = t372 + t373;
        const V t375 = t372 - t373;
        // complex block of 2
        const V t376 = t359 + t361;
        // complex block of 2
        const V t377 = t368 + t370;
        // complex block of 2
        const V t378 = t376 + t377;
        const V t379 = t376 - t377;
        const V t380 = t365 + t374;
        // real block of 29, multiplier 2
        const V t381 = c[12] * t380;
        // complex block of 2
        const V t382 = t365 - t374;
        // real block of 29, multiplier 2
        const V t383 = c[13] * t382;
        // complex block of 2
        const V t384 = t362 - t375;
        // real block of 29, multiplier 2
        const V t385 = c[14] * t384;
        const V t386 = c[15] * t384;
        // complex block of 2
        const V t387 = t366 + t371;
        // real block of 29, multiplier 2
        const V t388 = c[15] * t387;
        const V t389 = c[14] * t387;
        // complex block of 2
        const V t390 = t362 + t375;
        // real block of 29, multiplier 2
        const V t391 = c[16] * t390;
        const V t392 = c[17] * t390;
        // complex block of 2
        const V t393 = t366 - t371;
        // real block of 29, multiplier 2
        const V t394 = c[17] * t393;
        const V t395 = c[16] * t393;
        // real block of 7, multiplier 4
        const V t396 = t122 - t123;
        const V t397 = t396 + t105;
        // real block of 7, multiplier 4
        const V t398 = t274 - t275;
        const V t399 = t398 + t257;
        // complex block of 2
        const V t400 = t397 - t399;
        // real block of 7, multiplier 4
        const V t401 = t126 + t127;
        // real block of 7, multiplier 4
        const V t402 = t278 + t279;
        // complex block of 2
        const V t403 = t401 + t402;
        const V t404 = t401 - t402;
        // real block of 7, multiplier 4
        const V t405 = t46 - t47;
        const V t406 = t405 + t29;
        // real block of 7, multiplier 4
        const V t407 = t198 - t199;
        const V t408 = t407 + t181;
        // complex block of 2
        const V t409 = t406 - t408;
        // real block of 7, multiplier 4
        const V t410 = t50 + t51;
        // real block of 7, multiplier 4
        const V t411 = t202 + t203;
        // complex block of 2
        const V t412 = t410 + t411;
        const V t413 = t410 - t411;
        // complex block of 2
        const V t414 = t397 + t399;
        // complex block of 2
        const V t415 = t406 + t408;
        // complex block of 2
        const V t416 = t414 + t415;
        const V t417 = t414 - t415;
        const V t418 = t403 + t412;
        const V t419 = t403 - t412;
        // complex block of 2
        const V t420 = t400 - t413;
        // real block of 29, multiplier 2
        const V t421 = c[18] * t420;
        const V t422 = c[19] * t420;
        // complex block of 2
        const V t423 = t404 + t409;
        // real block of 29, multiplier 2
        const V t424 = c[19] * t423;
        const V t425 = c[18] * t423;
        // complex block of 2
        const V t426 = t400 + t413;
        // real block of 29, multiplier 2
        const V t427 = c[20] * t426;
        const V t428 = c[21] * t426;
        // complex block of 2
        const V t429 = t404 - t409;
        // real block of 29, multiplier 2
        const V t430 = c[21] * t429;
        const V t431 = c[20] * t429;
        // real block of 7, multiplier 4
        const V t432 = t132 + t128;
        const V t433 = t432 + t79;
        // real block of 7, multiplier 4
        const V t434 = t56 + t52;
        const V t435 = t434 + t25;
        // real block of 7, multiplier 4
        const V t436 = t284 + t280;
        const V t437 = t436 + t253;
        // real block of 7, multiplier 4
        const V t438 = t208 + t204;
        const V t439 = t438 + t163;
        // real block of 2
        const V t440 = t433 + t437;
        // real block of 2
        const V t441 = t435 + t439;
        // real block of 2
        const V t442 = t440 + t441;
        const V t443 = t440 - t441;
        // real block of 2
        const V t444 = t433 - t437;
        // real block of 2
        const V t445 = t435 - t439;
        // real block of 7, multiplier 4
        const V t446 = t134 + t135;
        const V t447 = t446 - t129;
        // real block of 7, multiplier 4
        const V t448 = t286 + t287;
        const V t449 = t448 - t281;
        // complex block of 2
        const V t450 = t447 - t449;
        // real block of 7, multiplier 4
        const V t451 = t138 - t139;
        // real block of 7, multiplier 4
        const V t452 = t290 - t291;
        // complex block of 2
        const V t453 = t451 + t452;
        const V t454 = t451 - t452;
        // real block of 7, multiplier 4
        const V t455 = t58 + t59;
        const V t456 = t455 - t53;
        // real block of 7, multiplier 4
        const V t457 = t210 + t211;
        const V t458 = t457 - t205;
        // complex block of 2
        const V t459 = t456 - t458;
        // real block of 7, multiplier 4
        const V t460 = t62 - t63;
        // real block of 7, multiplier 4
        const V t461 = t214 - t215;
        // complex block of 2
        const V t462 = t460 + t461;
        const V t463 = t460 - t461;
        // complex block of 2
        const V t464 = t447 + t449;
        // complex block of 2
        const V t465 = t456 + t458;
        // complex block of 2
        const V t466 = t464 + t465;
        const V t467 = t464 - t465;
        const V t468 = t453 + t462;
        // real block of 29, multiplier 2
        const V t469 = c[6] * t468;
        // complex block of 2
        const V t470 = t453 - t462;
        // real block of 29, multiplier 2
        const V t471 = c[7] * t470;
        // complex block of 2
        const V t472 = t450 - t463;
        // real block of 29, multiplier 2
        const V t473 = c[8] * t472;
        const V t474 = c[9] * t472;
        // complex block of 2
        const V t475 = t454 + t459;
        // real block of 29, multiplier 2
        const V t476 = c[9] * t475;
        const V t477 = c[8] * t475;
        // complex block of 2
        const V t478 = t450 + t463;
        // real block of 29, multiplier 2
        const V t479 = c[10] * t478;
        const V t480 = c[11] * t478;
        // complex block of 2
        const V t481 = t454 - t459;
        // real block of 29, multiplier 2
        const V t482 = c[11] * t481;
        const V t483 = c[10] * t481;
        // real block of 7, multiplier 4
        const V t484 = t142 - t130;
        const V t485 = t484 + t79;
        // real block of 7, multiplier 4
        const V t486 = t294 - t282;
        const V t487 = t486 + t253;
        // complex block of 2
        const V t488 = t485 - t487;
        // real block of 7, multiplier 4
        const V t489 = t146 - t143;
        // real block of 7, multiplier 4
        const V t490 = t298 - t295;
        // complex block of 2
        const V t491 = t489 + t490;
        const V t492 = t489 - t490;
        // real block of 7, multiplier 4
        const V t493 = t66 - t54;
        const V t494 = t493 + t25;
        // real block of 7, multiplier 4
        const V t495 = t218 - t206;
        const V t496 = t495 + t163;
        // complex block of 2
        const V t497 = t494 - t496;
        // real block of 7, multiplier 4
        const V t498 = t70 - t67;
        // real block of 7, multiplier 4
        const V t499 = t222 - t219;
        // complex block of 2
        const V t500 = t498 + t499;
        const V t501 = t498 - t499;
        // complex block of 2
        const V t502 = t485 + t487;
        // complex block of 2
        const V t503 = t494 + t496;
        // complex block of 2
        const V t504 = t502 + t503;
        const V t505 = t502 - t503;
        const V t506 = t491 + t500;
        // real block of 29, multiplier 2
        const V t507 = c[12] * t506;
        // complex block of 2
        const V t508 = t491 - t500;
        // real block of 29, multiplier 2
        const V t509 = c[13] * t508;
        // complex block of 2
        const V t510 = t488 - t501;
        // real block of 29, multiplier 2
        const V t511 = c[14] * t510;
        const V t512 = c[15] * t510;
        // complex block of 2
        const V t513 = t492 + t497;
        // real block of 29, multiplier 2
        const V t514 = c[15] * t513;
        const V t515 = c[14] * t513;
        // complex block of 2
        const V t516 = t488 + t501;
        // real block of 29, multiplier 2
        const V t517 = c[16] * t516;
        const V t518 = c[17] * t516;
        // complex block of 2
        const V t519 = t492 - t497;
        // real block of 29, multiplier 2
        const V t520 = c[17] * t519;
        const V t521 = c[16] * t519;
        // real block of 7, multiplier 4
        const V t522 = t148 - t149;
        const V t523 = t522 + t131;
        // real block of 7, multiplier 4
        const V t524 = t300 - t301;
        const V t525 = t524 + t283;
        // complex block of 2
        const V t526 = t523 - t525;
        // real block of 7, multiplier 4
        const V t527 = t152 + t153;
        // real block of 7, multiplier 4
        const V t528 = t304 + t305;
        // complex block of 2
        const V t529 = t527 + t528;
        const V t530 = t527 - t528;
        // real block of 7, multiplier 4
        const V t531 = t72 - t73;
        const V t532 = t531 + t55;
        // real block of 7, multiplier 4
        const V t533 = t224 - t225;
        const V t534 = t533 + t207;
        // complex block of 2
        const V t535 = t532 - t534;
        // real block of 7, multiplier 4
        const V t536 = t76 + t77;
        // real block of 7, multiplier 4
        const V t537 = t228 + t229;
        // complex block of 2
        const V t538 = t536 + t537;
        const V t539 = t536 - t537;
        // complex block of 2
        const V t540 = t523 + t525;
        // complex block of 2
        const V t541 = t532 + t534;
        // complex block of 2
        const V t542 = t540 + t541;
        const V t543 = t540 - t541;
        const V t544 = t529 + t538;
        const V t545 = t529 - t538;
        // complex block of 2
        const V t546 = t526 - t539;
        // real block of 29, multiplier 2
        const V t547 = c[18] * t546;
        const V t548 = c[19] * t546;
        // complex block of 2
        const V t549 = t530 + t535;
        // real block of 29, multiplier 2
        const V t550 = c[19] * t549;
        const V t551 = c[18] * t549;
        // complex block of 2
        const V t552 = t526 + t539;
        // real block of 29, multiplier 2
        const V t553 = c[20] * t552;
        const V t554 = c[21] * t552;
        // complex block of 2
        const V t555 = t530 - t535;
        // real block of 29, multiplier 2
        const V t556 = c[21] * t555;
        const V t557 = c[20] * t555;
        // real block of 29, multiplier 2
        const V t558 = t0 + t316;
        io.out(0, t558);
        const V t559 = c[32] * t316;
        const V t560 = t0 - t559;
        const V t561 = c[22] * t340;
        const V t562 = t561 + t343;
        const V t563 = c[23] * t341;
        const V t564 = t563 + t345;
        // complex block of 2
        const V t565 = t562 - t564;
        const V t566 = t562 + t564;
        // real block of 29, multiplier 2
        const V t567 = c[24] * t379;
        const V t568 = t567 - t383;
        const V t569 = c[25] * t378;
        const V t570 = t569 - t381;
        // complex block of 2
        const V t571 = t570 + t568;
        const V t572 = t570 - t568;
        // real block of 29, multiplier 2
        const V t573 = c[33] * t317;
        // spectrum block of 2
        const V t574 = t560 - t573;
        // spectrum block of 7, multiplier 2
        const V t575 = c[0] * t565;
        const V t576 = c[1] * t565;
        const V t577 = t574 - t575;
        const V t578 = t574 - t576;
        // spectrum block of 2
        const V t579 = t560 + t573;
        // spectrum block of 7, multiplier 2
        const V t580 = c[0] * t566;
        const V t581 = c[1] * t566;
        const V t582 = t579 - t580;
        const V t583 = t579 - t581;
        // spectrum block of 7, multiplier 2
        const V t584 = t565 + t571;
        const V t585 = c[2] * t565;
        const V t586 = c[0] * t571;
        const V t587 = t585 - t586;
        const V t588 = c[1] * t571;
        const V t589 = c[2] * t571;
        // spectrum block of 7, multiplier 2
        const V t590 = t566 + t572;
        const V t591 = c[2] * t566;
        const V t592 = c[0] * t572;
        const V t593 = t591 - t592;
        const V t594 = c[1] * t572;
        const V t595 = c[2] * t572;
        // real block of 29, multiplier 2
        const V t596 = t391 + t394;
        const V t597 = t385 - t388;
        // complex block of 2
        const V t598 = t596 + t597;
        const V t599 = t597 - t596;
        // mirrored skew block of 14
        const V t600 = c[0] * t598;
        // real block of 29, multiplier 2
        const V t601 = t395 - t392;
        const V t602 = t389 + t386;
        // complex block of 2
        const V t603 = t601 + t602;
        const V t604 = t601 - t602;
        // mirrored skew block of 14
        const V t605 = c[5] * t603;
        const V t606 = t605 + t600;
        // spectrum block of 7, multiplier 2
        const V t607 = c[1] * t606;
        // mirrored skew block of 14
        const V t608 = c[0] * t603;
        const V t609 = c[5] * t598;
        const V t610 = t608 - t609;
        // spectrum block of 7, multiplier 2
        const V t611 = c[1] * t604;
        const V t612 = c[3] * t599;
        const V t613 = c[2] * t604;
        const V t614 = c[4] * t599;
        const V t615 = c[0] * t604;
        const V t616 = c[5] * t599;
        // real block of 29, multiplier 2
        const V t617 = c[26] * t419;
        const V t618 = c[27] * t417;
        const V t619 = t618 + t617;
        const V t620 = c[28] * t418;
        const V t621 = c[29] * t416;
        const V t622 = t621 + t620;
        // complex block of 2
        const V t623 = t622 + t619;
        // spectrum block of 7, multiplier 2
        const V t624 = c[1] * t623;
        const V t625 = c[2] * t623;
        const V t626 = c[0] * t623;
        // complex block of 2
        const V t627 = t622 - t619;
        // spectrum block of 7, multiplier 2
        const V t628 = c[1] * t627;
        const V t629 = c[2] * t627;
        const V t630 = c[0] * t627;
        // real block of 29, multiplier 2
        const V t631 = c[26] * t417;
        const V t632 = c[27] * t419;
        const V t633 = t631 - t632;
        const V t634 = c[28] * t416;
        const V t635 = c[29] * t418;
        const V t636 = t635 - t634;
        // complex block of 2
        const V t637 = t636 - t633;
        // spectrum block of 7, multiplier 2
        const V t638 = c[3] * t637;
        const V t639 = c[4] * t637;
        const V t640 = c[5] * t637;
        // complex block of 2
        const V t641 = t636 + t633;
        // spectrum block of 7, multiplier 2
        const V t642 = c[3] * t641;
        const V t643 = c[4] * t641;
        const V t644 = c[5] * t641;
        // real block of 29, multiplier 2
        const V t645 = t353 + t356;
        const V t646 = t347 - t350;
        // complex block of 2
        const V t647 = t645 + t646;
        const V t648 = t646 - t645;
        // mirrored skew block of 14
        const V t649 = c[2] * t647;
        const V t650 = c[4] * t647;
        // real block of 29, multiplier 2
        const V t651 = t354 - t357;
        const V t652 = t351 + t348;
        // complex block of 2
        const V t653 = t651 - t652;
        const V t654 = t651 + t652;
        // mirrored skew block of 14
        const V t655 = c[4] * t653;
        const V t656 = c[2] * t653;
        // real block of 29, multiplier 2
        const V t657 = t430 - t427;
        const V t658 = t424 - t421;
        // complex block of 2
        const V t659 = t657 + t658;
        const V t660 = t658 - t657;
        // mirrored skew block of 14
        const V t661 = c[1] * t659;
        const V t662 = c[3] * t659;
        // real block of 29, multiplier 2
        const V t663 = t431 + t428;
        const V t664 = t425 + t422;
        // complex block of 2
        const V t665 = t663 + t664;
        const V t666 = t664 - t663;
        // mirrored skew block of 14
        const V t667 = c[3] * t665;
        const V t668 = c[1] * t665;
        // real block of 29, multiplier 2
        const V t669 = c[30] * t318;
        const V t670 = c[31] * t319;
        const V t671 = t670 + t669;
        // mirrored skew block of 14
        const V t672 = t655 + t649;
        // spectrum block of 7, multiplier 2
        const V t673 = c[0] * t672;
        const V t674 = c[1] * t672;
        const V t675 = c[2] * t672;
        // mirrored skew block of 14
        const V t676 = t656 - t650;
        // spectrum block of 7, multiplier 2
        const V t677 = c[5] * t676;
        const V t678 = c[3] * t676;
        const V t679 = c[4] * t676;
        // mirrored skew block of 14
        const V t680 = t661 - t667;
        // spectrum block of 7, multiplier 2
        const V t681 = c[2] * t680;
        const V t682 = c[0] * t680;
        const V t683 = c[1] * t680;
        // mirrored skew block of 14
        const V t684 = t662 + t668;
        // spectrum block of 7, multiplier 2
        const V t685 = c[4] * t684;
        const V t686 = c[5] * t684;
        const V t687 = c[3] * t684;
        // spectrum block of 7, multiplier 2
        const V t688 = t666 + t654;
        const V t689 = c[2] * t666;
        const V t690 = c[0] * t654;
        const V t691 = t689 - t690;
        const V t692 = c[4] * t660;
        const V t693 = c[5] * t648;
        const V t694 = t692 + t693;
        const V t695 = c[0] * t666;
        const V t696 = t671 - t695;
        const V t697 = c[1] * t654;
        const V t698 = c[5] * t660;
        const V t699 = c[3] * t648;
        const V t700 = t699 - t698;
        const V t701 = c[1] * t666;
        const V t702 = t671 - t701;
        const V t703 = c[2] * t654;
        const V t704 = c[3] * t660;
        const V t705 = c[4] * t648;
        const V t706 = t705 - t704;
        // real block of 29, multiplier 2
        const V t707 = c[6] * t340;
        const V t708 = c[22] * t342;
        const V t709 = t708 - t707;
        const V t710 = c[7] * t341;
        const V t711 = c[23] * t344;
        const V t712 = t711 - t710;
        // complex block of 2
        const V t713 = t709 - t712;
        // spectrum block of 7, multiplier 2
        const V t714 = c[4] * t713;
        const V t715 = c[5] * t713;
        const V t716 = c[3] * t713;
        // complex block of 2
        const V t717 = t709 + t712;
        // spectrum block of 7, multiplier 2
        const V t718 = c[4] * t717;
        const V t719 = c[5] * t717;
        const V t720 = c[3] * t717;
        // real block of 29, multiplier 2
        const V t721 = c[13] * t379;
        const V t722 = c[24] * t382;
        const V t723 = t722 + t721;
        const V t724 = c[12] * t378;
        const V t725 = c[25] * t380;
        const V t726 = t725 + t724;
        // complex block of 2
        const V t727 = t726 + t723;
        // spectrum block of 7, multiplier 2
        const V t728 = c[5] * t727;
        const V t729 = c[3] * t727;
        const V t730 = c[4] * t727;
        // complex block of 2
        const V t731 = t726 - t723;
        // spectrum block of 7, multiplier 2
        const V t732 = c[5] * t731;
        const V t733 = c[3] * t731;
        const V t734 = c[4] * t731;
        // real block of 29, multiplier 2
        const V t735 = c[30] * t319;
        const V t736 = c[31] * t318;
        const V t737 = t736 - t735;
        // spectrum block of 7, multiplier 2
        const V t738 = t584 + t623;
        const V t739 = t738 + t574;
        // spectrum block of 7, multiplier 2
        const V t740 = t688 + t604;
        const V t741 = t740 + t671;
        // output stage
        const V t742 = t739 - t741;
        io.out(2, t742);
        const V t743 = t739 + t741;
        io.out(56, t743);
        // spectrum block of 7, multiplier 2
        const V t744 = t587 - t624;
        const V t745 = t744 + t574;
        const V t746 = t714 + t728;
        const V t747 = t746 + t638;
        // spectrum block of 7, multiplier 2
        const V t748 = t702 + t703;
        const V t749 = t748 - t615;
        const V t750 = t706 - t616;
        // spectrum block of 7, multiplier 2
        const V t751 = t745 - t747;
        // spectrum block of 7, multiplier 2
        const V t752 = t749 + t750;
        // output stage
        const V t753 = t751 + t752;
        io.out(12, t753);
        const V t754 = t751 - t752;
        io.out(46, t754);
        // spectrum block of 7, multiplier 2
        const V t755 = t745 + t747;
        // spectrum block of 7, multiplier 2
        const V t756 = t749 - t750;
        // output stage
        const V t757 = t755 + t756;
        io.out(10, t757);
        const V t758 = t755 - t756;
        io.out(48, t758);
        // spectrum block of 7, multiplier 2
        const V t759 = t577 - t588;
        const V t760 = t759 + t625;
        const V t761 = t715 - t729;
        const V t762 = t761 - t639;
        // spectrum block of 7, multiplier 2
        const V t763 = t691 - t611;
        const V t764 = t763 + t671;
        const V t765 = t694 + t612;
        // spectrum block of 7, multiplier 2
        const V t766 = t760 - t762;
        // spectrum block of 7, multiplier 2
        const V t767 = t764 + t765;
        // output stage
        const V t768 = t766 - t767;
        io.out(14, t768);
        const V t769 = t766 + t767;
        io.out(44, t769);
        // spectrum block of 7, multiplier 2
        const V t770 = t760 + t762;
        // spectrum block of 7, multiplier 2
        const V t771 = t764 - t765;
        // output stage
        const V t772 = t770 + t771;
        io.out(8, t772);
        const V t773 = t770 - t771;
        io.out(50, t773);
        // spectrum block of 7, multiplier 2
        const V t774 = t578 + t589;
        const V t775 = t774 - t626;
        const V t776 = t716 - t730;
        const V t777 = t776 + t640;
        // spectrum block of 7, multiplier 2
        const V t778 = t696 - t697;
        const V t779 = t778 + t613;
        const V t780 = t700 + t614;
        // spectrum block of 7, multiplier 2
        const V t781 = t775 - t777;
        // spectrum block of 7, multiplier 2
        const V t782 = t779 + t780;
        // output stage
        const V t783 = t781 + t782;
        io.out(26, t783);
        const V t784 = t781 - t782;
        io.out(32, t784);
        // spectrum block of 7, multiplier 2
        const V t785 = t775 + t777;
        // spectrum block of 7, multiplier 2
        const V t786 = t779 - t780;
        // output stage
        const V t787 = t785 + t786;
        io.out(18, t787);
        const V t788 = t785 - t786;
        io.out(40, t788);
        // spectrum block of 7, multiplier 2
        const V t789 = t590 + t627;
        const V t790 = t789 + t579;
        const V t791 = t593 - t628;
        const V t792 = t791 + t579;
        const V t793 = t718 + t732;
        const V t794 = t793 + t642;
        const V t795 = t582 - t594;
        const V t796 = t795 + t629;
        const V t797 = t719 - t733;
        const V t798 = t797 - t643;
        const V t799 = t583 + t595;
        const V t800 = t799 - t630;
        const V t801 = t720 - t734;
        const V t802 = t801 + t644;
        // spectrum block of 7, multiplier 2
        const V t803 = t680 + t672;
        const V t804 = t803 + t606;
        const V t805 = t681 - t673;
        const V t806 = t805 - t607;
        const V t807 = t806 + t737;
        const V t808 = t685 - t677;
        const V t809 = c[3] * t610;
        const V t810 = t808 - t809;
        const V t811 = t737 - t682;
        const V t812 = t811 - t674;
        const V t813 = c[2] * t606;
        const V t814 = t812 + t813;
        const V t815 = t686 + t678;
        const V t816 = c[4] * t610;
        const V t817 = t815 + t816;
        const V t818 = t737 - t683;
        const V t819 = t818 + t675;
        const V t820 = c[0] * t606;
        const V t821 = t819 - t820;
        const V t822 = t687 + t679;
        const V t823 = c[5] * t610;
        const V t824 = t822 - t823;
        // spectrum block of 7, multiplier 2
        const V t825 = t792 - t794;
        // spectrum block of 7, multiplier 2
        const V t826 = t804 + t737;
        // output stage
        const V t827 = t825 + t826;
        io.out(28, t827);
        const V t828 = t825 - t826;
        io.out(30, t828);
        // spectrum block of 7, multiplier 2
        const V t829 = t792 + t794;
        // spectrum block of 7, multiplier 2
        const V t830 = t807 + t810;
        // output stage
        const V t831 = t829 + t830;
        io.out(4, t831);
        const V t832 = t829 - t830;
        io.out(54, t832);
        // spectrum block of 7, multiplier 2
        const V t833 = t796 - t798;
        // spectrum block of 7, multiplier 2
        const V t834 = t821 + t824;
        // output stage
        const V t835 = t833 + t834;
        io.out(6, t835);
        const V t836 = t833 - t834;
        io.out(52, t836);
        // spectrum block of 7, multiplier 2
        const V t837 = t796 + t798;
        // spectrum block of 7, multiplier 2
        const V t838 = t814 - t817;
        // output stage
        const V t839 = t837 - t838;
        io.out(20, t839);
        const V t840 = t837 + t838;
        io.out(38, t840);
        // spectrum block of 7, multiplier 2
        const V t841 = t800 - t802;
        // spectrum block of 7, multiplier 2
        const V t842 = t807 - t810;
        // output stage
        const V t843 = t841 + t842;
        io.out(22, t843);
        const V t844 = t841 - t842;
        io.out(36, t844);
        // spectrum block of 7, multiplier 2
        const V t845 = t800 + t802;
        // spectrum block of 7, multiplier 2
        const V t846 = t814 + t817;
        // output stage
        const V t847 = t845 - t846;
        io.out(16, t847);
        const V t848 = t845 + t846;
        io.out(42, t848);
        // spectrum block of 7, multiplier 2
        const V t849 = t821 - t824;
        // output stage
        const V t850 = t790 - t849;
        io.out(24, t850);
        const V t851 = t790 + t849;
        io.out(34, t851);
        // real block of 29, multiplier 2
        const V t852 = t1 + t442;
        io.out(29, t852);
        const V t853 = c[32] * t442;
        const V t854 = t1 - t853;
        const V t855 = c[22] * t466;
        const V t856 = t855 + t469;
        const V t857 = c[23] * t467;
        const V t858 = t857 + t471;
        // complex block of 2
        const V t859 = t856 - t858;
        const V t860 = t856 + t858;
        // real block of 29, multiplier 2
        const V t861 = c[24] * t505;
        const V t862 = t861 - t509;
        const V t863 = c[25] * t504;
        const V t864 = t863 - t507;
        // complex block of 2
        const V t865 = t864 + t862;
        const V t866 = t864 - t862;
        // real block of 29, multiplier 2
        const V t867 = c[33] * t443;
        // spectrum block of 2
        const V t868 = t854 - t867;
        // spectrum block of 7, multiplier 2
        const V t869 = c[0] * t859;
        const V t870 = c[1] * t859;
        const V t871 = t868 - t869;
        const V t872 = t868 - t870;
        // spectrum block of 2
        const V t873 = t854 + t867;
        // spectrum block of 7, multiplier 2
        const V t874 = c[0] * t860;
        const V t875 = c[1] * t860;
        const V t876 = t873 - t874;
        const V t877 = t873 - t875;
        // spectrum block of 7, multiplier 2
        const V t878 = t859 + t865;
        const V t879 = c[2] * t859;
        const V t880 = c[0] * t865;
        const V t881 = t879 - t880;
        const V t882 = c[1] * t865;
        const V t883 = c[2] * t865;
        // spectrum block of 7, multiplier 2
        const V t884 = t860 + t866;
        const V t885 = c[2] * t860;
        const V t886 = c[0] * t866;
        const V t887 = t885 - t886;
        const V t888 = c[1] * t866;
        const V t889 = c[2] * t866;
        // real block of 29, multiplier 2
        const V t890 = t517 + t520;
        const V t891 = t511 - t514;
        // complex block of 2
        const V t892 = t890 + t891;
        const V t893 = t891 - t890;
        // mirrored skew block of 14
        const V t894 = c[0] * t892;
        // real block of 29, multiplier 2
        const V t895 = t521 - t518;
        const V t896 = t515 + t512;
        // complex block of 2
        const V t897 = t895 + t896;
        const V t898 = t895 - t896;
        // mirrored skew block of 14
        const V t899 = c[5] * t897;
        const V t900 = t899 + t894;
        // spectrum block of 7, multiplier 2
        const V t901 = c[1] * t900;
        // mirrored skew block of 14
        const V t902 = c[0] * t897;
        const V t903 = c[5] * t892;
        const V t904 = t902 - t903;
        // spectrum block of 7, multiplier 2
        const V t905 = c[1] * t898;
        const V t906 = c[3] * t893;
        const V t907 = c[2] * t898;
        const V t908 = c[4] * t893;
        const V t909 = c[0] * t898;
        const V t910 = c[5] * t893;
        // real block of 29, multiplier 2
        const V t911 = c[26] * t545;
        const V t912 = c[27] * t543;
        const V t913 = t912 + t911;
        const V t914 = c[28] * t544;
        const V t915 = c[29] * t542;
        const V t916 = t915 + t914;
        // complex block of 2
        const V t917 = t916 + t913;
        // spectrum block of 7, multiplier 2
        const V t918 = c[1] * t917;
        const V t919 = c[2] * t917;
        const V t920 = c[0] * t917;
        // complex block of 2
        const V t921 = t916 - t913;
        // spectrum block of 7, multiplier 2
        const V t922 = c[1] * t921;
        const V t923 = c[2] * t921;
        const V t924 = c[0] * t921;
        // real block of 29, multiplier 2
        const V t925 = c[26] * t543;
        const V t926 = c[27] * t545;
        const V t927 = t925 - t926;
        const V t928 = c[28] * t542;
        const V t929 = c[29] * t544;
        const V t930 = t929 - t928;
        // complex block of 2
        const V t931 = t930 - t927;
        // spectrum block of 7, multiplier 2
        const V t932 = c[3] * t931;
        const V t933 = c[4] * t931;
        const V t934 = c[5] * t931;
        // complex block of 2
        const V t935 = t930 + t927;
        // spectrum block of 7, multiplier 2
        const V t936 = c[3] * t935;
        const V t937 = c[4] * t935;
        const V t938 = c[5] * t935;
        // real block of 29, multiplier 2
        const V t939 = t479 + t482;
        const V t940 = t473 - t476;
        // complex block of 2
        const V t941 = t939 + t940;
        const V t942 = t940 - t939;
        // mirrored skew block of 14
        const V t943 = c[2] * t941;
        const V t944 = c[4] * t941;
        // real block of 29, multiplier 2
        const V t945 = t480 - t483;
        const V t946 = t477 + t474;
        // complex block of 2
        const V t947 = t945 - t946;
        const V t948 = t945 + t946;
        // mirrored skew block of 14
        const V t949 = c[4] * t947;
        const V t950 = c[2] * t947;
        // real block of 29, multiplier 2
        const V t951 = t556 - t553;
        const V t952 = t550 - t547;
        // complex block of 2
        const V t953 = t951 + t952;
        const V t954 = t952 - t951;
        // mirrored skew block of 14
        const V t955 = c[1] * t953;
        const V t956 = c[3] * t953;
        // real block of 29, multiplier 2
        const V t957 = t557 + t554;
        const V t958 = t551 + t548;
        // complex block of 2
        const V t959 = t957 + t958;
        const V t960 = t958 - t957;
        // mirrored skew block of 14
        const V t961 = c[3] * t959;
        const V t962 = c[1] * t959;
        // real block of 29, multiplier 2
        const V t963 = c[30] * t444;
        const V t964 = c[31] * t445;
        const V t965 = t964 + t963;
        // mirrored skew block of 14
        const V t966 = t949 + t943;
        // spectrum block of 7, multiplier 2
        const V t967 = c[0] * t966;
        const V t968 = c[1] * t966;
        const V t969 = c[2] * t966;
        // mirrored skew block of 14
        const V t970 = t950 - t944;
        // spectrum block of 7, multiplier 2
        const V t971 = c[5] * t970;
        const V t972 = c[3] * t970;
        const V t973 = c[4] * t970;
        // mirrored skew block of 14
        const V t974 = t955 - t961;
        // spectrum block of 7, multiplier 2
        const V t975 = c[2] * t974;
        const V t976 = c[0] * t974;
        const V t977 = c[1] * t974;
        // mirrored skew block of 14
        const V t978 = t956 + t962;
        // spectrum block of 7, multiplier 2
        const V t979 = c[4] * t978;
        const V t980 = c[5] * t978;
        const V t981 = c[3] * t978;
        // spectrum block of 7, multiplier 2
        const V t982 = t960 + t948;
        const V t983 = c[2] * t960;
        const V t984 = c[0] * t948;
        const V t985 = t983 - t984;
        const V t986 = c[4] * t954;
        const V t987 = c[5] * t942;
        const V t988 = t986 + t987;
        const V t989 = c[0] * t960;
        const V t990 = t965 - t989;
        const V t991 = c[1] * t948;
        const V t992 = c[5] * t954;
        const V t993 = c[3] * t942;
        const V t994 = t993 - t992;
        const V t995 = c[1] * t960;
        const V t996 = t965 - t995;
        const V t997 = c[2] * t948;
        const V t998 = c[3] * t954;
        const V t999 = c[4] * t942;
        const V t1000 = t999 - t998;
        // real block of 29, multiplier 2
        const V t1001 = c[6] * t466;
        const V t1002 = c[22] * t468;
        const V t1003 = t1002 - t1001;
        const V t1004 = c[7] * t467;
        const V t1005 = c[23] * t470;
        const V t1006 = t1005 - t1004;
        // complex block of 2
        const V t1007 = t1003 - t1006;
        // spectrum block of 7, multiplier 2
        const V t1008 = c[4] * t1007;
        const V t1009 = c[5] * t1007;
        const V t1010 = c[3] * t1007;
        // complex block of 2
        const V t1011 = t1003 + t1006;
        // spectrum block of 7, multiplier 2
        const V t1012 = c[4] * t1011;
        const V t1013 = c[5] * t1011;
        const V t1014 = c[3] * t1011;
        // real block of 29, multiplier 2
        const V t1015 = c[13] * t505;
        const V t1016 = c[24] * t508;
        const V t1017 = t1016 + t1015;
        const V t1018 = c[12] * t504;
        const V t1019 = c[25] * t506;
        const V t1020 = t1019 + t1018;
        // complex block of 2
        const V t1021 = t1020 + t1017;
        // spectrum block of 7, multiplier 2
        const V t1022 = c[5] * t1021;
        const V t1023 = c[3] * t1021;
        const V t1024 = c[4] * t1021;
        // complex block of 2
        const V t1025 = t1020 - t1017;
        // spectrum block of 7, multiplier 2
        const V t1026 = c[5] * t1025;
        const V t1027 = c[3] * t1025;
        const V t1028 = c[4] * t1025;
        // real block of 29, multiplier 2
        const V t1029 = c[30] * t445;
        const V t1030 = c[31] * t444;
        const V t1031 = t1030 - t1029;
        // spectrum block of 7, multiplier 2
        const V t1032 = t878 + t917;
        const V t1033 = t1032 + t868;
        // spectrum block of 7, multiplier 2
        const V t1034 = t982 + t898;
        const V t1035 = t1034 + t965;
        // output stage
        const V t1036 = t1033 + t1035;
        io.out(27, t1036);
        const V t1037 = t1033 - t1035;
        io.out(31, t1037);
        // spectrum block of 7, multiplier 2
        const V t1038 = t881 - t918;
        const V t1039 = t1038 + t868;
        const V t1040 = t1008 + t1022;
        const V t1041 = t1040 + t932;
        // spectrum block of 7, multiplier 2
        const V t1042 = t996 + t997;
        const V t1043 = t1042 - t909;
        const V t1044 = t1000 - t910;
        // spectrum block of 7, multiplier 2
        const V t1045 = t1039 - t1041;
        // spectrum block of 7, multiplier 2
        const V t1046 = t1043 + t1044;
        // output stage
        const V t1047 = t1045 - t1046;
        io.out(17, t1047);
        const V t1048 = t1045 + t1046;
        io.out(41, t1048);
        // spectrum block of 7, multiplier 2
        const V t1049 = t1039 + t1041;
        // spectrum block of 7, multiplier 2
        const V t1050 = t1043 - t1044;
        // output stage
        const V t1051 = t1049 - t1050;
        io.out(19, t1051);
        const V t1052 = t1049 + t1050;
        io.out(39, t1052);
        // spectrum block of 7, multiplier 2
        const V t1053 = t871 - t882;
        const V t1054 = t1053 + t919;
        const V t1055 = t1009 - t1023;
        const V t1056 = t1055 - t933;
        // spectrum block of 7, multiplier 2
        const V t1057 = t985 - t905;
        const V t1058 = t1057 + t965;
        const V t1059 = t988 + t906;
        // spectrum block of 7, multiplier 2
        const V t1060 = t1054 - t1056;
        // spectrum block of 7, multiplier 2
        const V t1061 = t1058 + t1059;
        // output stage
        const V t1062 = t1060 + t1061;
        io.out(15, t1062);
        const V t1063 = t1060 - t1061;
        io.out(43, t1063);
        // spectrum block of 7, multiplier 2
        const V t1064 = t1054 + t1056;
        // spectrum block of 7, multiplier 2
        const V t1065 = t1058 - t1059;
        // output stage
        const V t1066 = t1064 - t1065;
        io.out(21, t1066);
        const V t1067 = t1064 + t1065;
        io.out(37, t1067);
        // spectrum block of 7, multiplier 2
        const V t1068 = t872 + t883;
        const V t1069 = t1068 - t920;
        const V t1070 = t1010 - t1024;
        const V t1071 = t1070 + t934;
        // spectrum block of 7, multiplier 2
        const V t1072 = t990 - t991;
        const V t1073 = t1072 + t907;
        const V t1074 = t994 + t908;
        // spectrum block of 7, multiplier 2
        const V t1075 = t1069 - t1071;
        // spectrum block of 7, multiplier 2
        const V t1076 = t1073 + t1074;
        // output stage
        const V t1077 = t1075 - t1076;
        io.out(3, t1077);
        const V t1078 = t1075 + t1076;
        io.out(55, t1078);
        // spectrum block of 7, multiplier 2
        const V t1079 = t1069 + t1071;
        // spectrum block of 7, multiplier 2
        const V t1080 = t1073 - t1074;
        // output stage
        const V t1081 = t1079 - t1080;
        io.out(11, t1081);
        const V t1082 = t1079 + t1080;
        io.out(47, t1082);
        // spectrum block of 7, multiplier 2
        const V t1083 = t884 + t921;
        const V t1084 = t1083 + t873;
        const V t1085 = t887 - t922;
        const V t1086 = t1085 + t873;
        const V t1087 = t1012 + t1026;
        const V t1088 = t1087 + t936;
        const V t1089 = t876 - t888;
        const V t1090 = t1089 + t923;
        const V t1091 = t1013 - t1027;
        const V t1092 = t1091 - t937;
        const V t1093 = t877 + t889;
        const V t1094 = t1093 - t924;
        const V t1095 = t1014 - t1028;
        const V t1096 = t1095 + t938;
        // spectrum block of 7, multiplier 2
        const V t1097 = t974 + t966;
        const V t1098 = t1097 + t900;
        const V t1099 = t975 - t967;
        const V t1100 = t1099 - t901;
        const V t1101 = t1100 + t1031;
        const V t1102 = t979 - t971;
        const V t1103 = c[3] * t904;
        const V t1104 = t1102 - t1103;
        const V t1105 = t1031 - t976;
        const V t1106 = t1105 - t968;
        const V t1107 = c[2] * t900;
        const V t1108 = t1106 + t1107;
        const V t1109 = t980 + t972;
        const V t1110 = c[4] * t904;
        const V t1111 = t1109 + t1110;
        const V t1112 = t1031 - t977;
        const V t1113 = t1112 + t969;
        const V t1114 = c[0] * t900;
        const V t1115 = t1113 - t1114;
        const V t1116 = t981 + t973;
        const V t1117 = c[5] * t904;
        const V t1118 = t1116 - t1117;
        // spectrum block of 7, multiplier 2
        const V t1119 = t1086 - t1088;
        // spectrum block of 7, multiplier 2
        const V t1120 = t1098 + t1031;
        // output stage
        const V t1121 = t1119 - t1120;
        io.out(1, t1121);
        const V t1122 = t1119 + t1120;
        io.out(57, t1122);
        // spectrum block of 7, multiplier 2
        const V t1123 = t1086 + t1088;
        // spectrum block of 7, multiplier 2
        const V t1124 = t1101 + t1104;
        // output stage
        const V t1125 = t1123 - t1124;
        io.out(25, t1125);
        const V t1126 = t1123 + t1124;
        io.out(33, t1126);
        // spectrum block of 7, multiplier 2
        const V t1127 = t1090 - t1092;
        // spectrum block of 7, multiplier 2
        const V t1128 = t1115 + t1118;
        // output stage
        const V t1129 = t1127 - t1128;
        io.out(23, t1129);
        const V t1130 = t1127 + t1128;
        io.out(35, t1130);
        // spectrum block of 7, multiplier 2
        const V t1131 = t1090 + t1092;
        // spectrum block of 7, multiplier 2
        const V t1132 = t1108 - t1111;
        // output stage
        const V t1133 = t1131 + t1132;
        io.out(9, t1133);
        const V t1134 = t1131 - t1132;
        io.out(49, t1134);
        // spectrum block of 7, multiplier 2
        const V t1135 = t1094 - t1096;
        // spectrum block of 7, multiplier 2
        const V t1136 = t1101 - t1104;
        // output stage
        const V t1137 = t1135 - t1136;
        io.out(7, t1137);
        const V t1138 = t1135 + t1136;
        io.out(51, t1138);
        // spectrum block of 7, multiplier 2
        const V t1139 = t1094 + t1096;
        // spectrum block of 7, multiplier 2
        const V t1140 = t1108 + t1111;
        // output stage
        const V t1141 = t1139 + t1140;
        io.out(13, t1141);
        const V t1142 = t1139 - t1140;
        io.out(45, t1142);
        // spectrum block of 7, multiplier 2
        const V t1143 = t1115 - t1118;
        // output stage
        const V t1144 = t1084 + t1143;
        io.out(5, t1144);
        const V t1145 = t1084 - t1143;
        io.out(53, t1145);
    }
};

}  // namespace zulg
