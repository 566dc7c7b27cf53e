// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 58.
// Inverse DFT to 58 real points, prime-factor 29, 2.
// 335 additions, 335 subtractions, 476 multiplications (534 with `scale`); 35 constants; 106 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<58> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 2/7
        0.9009688679024191,  // c[1]: -cos 2 pi 10/7
        0.6234898018587335,  // c[2]: cos 2 pi 8/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 10/7
        0.7818314824680298,  // c[5]: sin 2 pi 8/7
        0.3609030660383976,  // c[6]: P[4] of 29
        0.1330720128259635,  // c[7]: -Q[4] of 29
        0.2786653006997481,  // c[8]: P[8] of 29
        0.26515058713755163,  // c[9]: Q[8] of 29
        0.08413784916151361,  // c[10]: P[12] of 29
        0.3753398540149231,  // c[11]: -Q[12] of 29
        0.2987602224736465,  // c[12]: -P[10] of 29
        0.24228395147216553,  // c[13]: -Q[10] of 29
        0.38084126020120657,  // c[14]: P[6] of 29
        0.054028864524680344,  // c[15]: -Q[6] of 29
        0.3298297662985413,  // c[16]: P[2] of 29
        0.19791793485411824,  // c[17]: Q[2] of 29
        0.07274108340629196,  // c[18]: Q[7] of 29
        0.3777140697119294,  // c[19]: -P[7] of 29
        0.21044290248272673,  // c[20]: -P[1] of 29
        0.3219828698364479,  // c[21]: -Q[1] of 29
        0.1800860537573993,  // c[22]: -P[13] of 29
        0.3398943908268515,  // c[23]: -Q[13] of 29
        0.384463442096457,  // c[24]: -P[3] of 29
        0.012126226322052493,  // c[25]: Q[3] of 29
        0.019970959548377194,  // c[26]: -P[11] of 29
        0.38413584113980626,  // c[27]: Q[11] of 29
        0.13150502224471186,  // c[28]: P[5] of 29
        0.36147698792300353,  // c[29]: -Q[5] of 29
        0.3603875070846735,  // c[30]: P[9] of 29
        0.13446199615788765,  // c[31]: Q[9] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x17r = io.re(17);
        const V t1 = two * x17r;
        const V x19r = io.re(19);
        const V t2 = two * x19r;
        const V x25r = io.re(25);
        const V t3 = two * x25r;
        // real block of 2
        const V t4 = t1 + t0;
        // real block of 2
        const V t5 = t2 + t3;
        // real block of 7, multiplier 2
        const V t6 = t5 + t4;
        const V t7 = t5 - t4;
        // real block of 2
        const V t8 = t1 - t0;
        // real block of 2
        const V t9 = t2 - t3;
        // real block of 7, multiplier 2
        const V t10 = t9 + t8;
        const V t11 = t9 - t8;
        // doubled bins
        const V x3r = io.re(3);
        const V t12 = two * x3r;
        const V x7r = io.re(7);
        const V t13 = two * x7r;
        // real block of 2
        const V t14 = t12 + t13;
        const V t15 = t12 - t13;
        // doubled bins
        const V x11r = io.re(11);
        const V t16 = two * x11r;
        const V x13r = io.re(13);
        const V t17 = two * x13r;
        // real block of 2
        const V t18 = t16 + t17;
        const V t19 = t16 - t17;
        // real block of 7, multiplier 2
        const V t20 = t18 + t14;
        const V t21 = c[0] * t20;
        const V t22 = t18 - t14;
        // real block of 7, multiplier 2
        const V t23 = t19 + t15;
        const V t24 = c[0] * t23;
        const V t25 = t19 - t15;
        // doubled bins
        const V x5r = io.re(5);
        const V t26 = two * x5r;
        const V x27r = io.re(27);
        const V t27 = two * x27r;
        // real block of 2
        const V t28 = t27 + t26;
        const V t29 = t27 - t26;
        // doubled bins
        const V x9r = io.re(9);
        const V t30 = two * x9r;
        const V x21r = io.re(21);
        const V t31 = two * x21r;
        // real block of 2
        const V t32 = t31 + t30;
        const V t33 = t31 - t30;
        // doubled bins
        const V x15r = io.re(15);
        const V t34 = two * x15r;
        const V x23r = io.re(23);
        const V t35 = two * x23r;
        // real block of 2
        const V t36 = t34 + t35;
        const V t37 = t34 - t35;
        // real block of 7, multiplier 2
        const V t38 = t32 + t36;
        const V t39 = c[0] * t38;
        const V t40 = c[1] * t38;
        const V t41 = c[2] * t38;
        const V t42 = t32 - t36;
        // real block of 7, multiplier 2
        const V t43 = t33 + t37;
        const V t44 = c[0] * t43;
        const V t45 = c[1] * t43;
        const V t46 = c[2] * t43;
        const V t47 = t33 - t37;
        // real block of 7, multiplier 2
        const V t48 = t38 + t20;
        const V t49 = t48 + t6;
        const V t50 = t49 + t28;
        // spectrum block of 29, multiplier 2
        const V t51 = c[32] * t50;
        // real block of 7, multiplier 2
        const V t52 = t28 - t39;
        const V t53 = c[1] * t20;
        const V t54 = t52 - t53;
        const V t55 = c[2] * t6;
        const V t56 = t54 + t55;
        // spectrum block of 29, multiplier 2
        const V t57 = c[6] * t56;
        const V t58 = c[7] * t56;
        // real block of 7, multiplier 2
        const V t59 = c[3] * t42;
        const V t60 = c[4] * t22;
        const V t61 = t59 + t60;
        const V t62 = c[5] * t7;
        const V t63 = t61 + t62;
        // spectrum block of 29, multiplier 2
        const V t64 = c[7] * t63;
        const V t65 = c[6] * t63;
        // real block of 7, multiplier 2
        const V t66 = t28 - t40;
        const V t67 = c[2] * t20;
        const V t68 = t66 + t67;
        const V t69 = c[0] * t6;
        const V t70 = t68 - t69;
        // spectrum block of 29, multiplier 2
        const V t71 = c[8] * t70;
        const V t72 = c[9] * t70;
        // real block of 7, multiplier 2
        const V t73 = c[4] * t42;
        const V t74 = c[5] * t22;
        const V t75 = t73 + t74;
        const V t76 = c[3] * t7;
        const V t77 = t75 - t76;
        // spectrum block of 29, multiplier 2
        const V t78 = c[9] * t77;
        const V t79 = c[8] * t77;
        // real block of 7, multiplier 2
        const V t80 = t41 - t21;
        const V t81 = c[1] * t6;
        const V t82 = t80 - t81;
        const V t83 = t82 + t28;
        // spectrum block of 29, multiplier 2
        const V t84 = c[10] * t83;
        // real block of 7, multiplier 2
        const V t85 = c[5] * t42;
        const V t86 = c[3] * t22;
        const V t87 = t85 - t86;
        const V t88 = c[4] * t7;
        const V t89 = t87 - t88;
        // spectrum block of 29, multiplier 2
        const V t90 = c[11] * t89;
        const V t91 = c[10] * t89;
        // real block of 7, multiplier 2
        const V t92 = t43 + t23;
        const V t93 = t92 + t10;
        const V t94 = t93 + t29;
        // spectrum block of 29, multiplier 2
        const V t95 = c[33] * t94;
        // real block of 7, multiplier 2
        const V t96 = t29 - t44;
        const V t97 = c[1] * t23;
        const V t98 = t96 - t97;
        const V t99 = c[2] * t10;
        const V t100 = t98 + t99;
        // spectrum block of 29, multiplier 2
        const V t101 = c[12] * t100;
        const V t102 = c[13] * t100;
        // real block of 7, multiplier 2
        const V t103 = c[3] * t47;
        const V t104 = c[4] * t25;
        const V t105 = t103 + t104;
        const V t106 = c[5] * t11;
        const V t107 = t105 + t106;
        // spectrum block of 29, multiplier 2
        const V t108 = c[13] * t107;
        const V t109 = c[12] * t107;
        // real block of 7, multiplier 2
        const V t110 = t29 - t45;
        const V t111 = c[2] * t23;
        const V t112 = t110 + t111;
        const V t113 = c[0] * t10;
        const V t114 = t112 - t113;
        // spectrum block of 29, multiplier 2
        const V t115 = c[14] * t114;
        const V t116 = c[15] * t114;
        // real block of 7, multiplier 2
        const V t117 = c[4] * t47;
        const V t118 = c[5] * t25;
        const V t119 = t117 + t118;
        const V t120 = c[3] * t11;
        const V t121 = t119 - t120;
        // spectrum block of 29, multiplier 2
        const V t122 = c[15] * t121;
        const V t123 = c[14] * t121;
        // real block of 7, multiplier 2
        const V t124 = t46 - t24;
        const V t125 = c[1] * t10;
        const V t126 = t124 - t125;
        const V t127 = t126 + t29;
        // spectrum block of 29, multiplier 2
        const V t128 = c[16] * t127;
        // real block of 7, multiplier 2
        const V t129 = c[5] * t47;
        const V t130 = c[3] * t25;
        const V t131 = t129 - t130;
        const V t132 = c[4] * t11;
        const V t133 = t131 - t132;
        // spectrum block of 29, multiplier 2
        const V t134 = c[17] * t133;
        const V t135 = c[16] * t133;
        // doubled bins
        const V x1i = io.im(1);
        const V t136 = two * x1i;
        const V x13i = io.im(13);
        const V t137 = two * x13i;
        // real block of 7
        const V t138 = t137 - t136;
        const V t139 = t137 + t136;
        // doubled bins
        const V x5i = io.im(5);
        const V t140 = two * x5i;
        const V x9i = io.im(9);
        const V t141 = two * x9i;
        // real block of 7
        const V t142 = t141 - t140;
        // doubled bins
        const V x7i = io.im(7);
        const V t143 = two * x7i;
        const V x23i = io.im(23);
        const V t144 = two * x23i;
        // real block of 7
        const V t145 = t143 + t144;
        const V t146 = t144 - t143;
        // doubled bins
        const V x25i = io.im(25);
        const V t147 = two * x25i;
        // real block of 7
        const V t148 = t141 + t140;
        const V t149 = c[1] * t148;
        const V t150 = c[2] * t148;
        const V t151 = c[0] * t148;
        const V t152 = t138 - t145;
        const V t153 = c[2] * t138;
        const V t154 = c[0] * t145;
        const V t155 = t153 + t154;
        const V t156 = c[5] * t139;
        const V t157 = c[3] * t146;
        const V t158 = c[4] * t142;
        const V t159 = t157 + t158;
        const V t160 = c[0] * t138;
        const V t161 = t147 + t160;
        const V t162 = c[1] * t145;
        const V t163 = c[3] * t139;
        const V t164 = c[4] * t146;
        const V t165 = t163 + t164;
        const V t166 = c[5] * t142;
        const V t167 = c[1] * t138;
        const V t168 = t147 + t167;
        const V t169 = c[2] * t145;
        const V t170 = c[4] * t139;
        const V t171 = c[3] * t142;
        const V t172 = t171 - t170;
        const V t173 = c[5] * t146;
        // doubled bins
        const V x3i = io.im(3);
        const V t174 = two * x3i;
        const V x11i = io.im(11);
        const V t175 = two * x11i;
        const V x15i = io.im(15);
        const V t176 = two * x15i;
        const V x21i = io.im(21);
        const V t177 = two * x21i;
        // real block of 7
        const V t178 = t177 - t176;
        const V t179 = t175 + t174;
        const V t180 = t178 + t179;
        const V t181 = c[2] * t178;
        const V t182 = c[0] * t179;
        const V t183 = c[0] * t178;
        const V t184 = c[1] * t179;
        const V t185 = c[1] * t178;
        const V t186 = c[2] * t179;
        const V t187 = t177 + t176;
        const V t188 = c[3] * t187;
        const V t189 = c[4] * t187;
        const V t190 = t175 - t174;
        const V t191 = c[3] * t190;
        const V t192 = c[4] * t190;
        // doubled bins
        const V x17i = io.im(17);
        const V t193 = two * x17i;
        const V x19i = io.im(19);
        const V t194 = two * x19i;
        // real block of 7
        const V t195 = t194 + t193;
        const V t196 = c[1] * t195;
        const V t197 = t194 - t193;
        const V t198 = c[4] * t197;
        const V t199 = c[3] * t197;
        // doubled bins
        const V x27i = io.im(27);
        const V t200 = two * x27i;
        // real block of 7
        const V t201 = t180 + t195;
        const V t202 = t201 - t200;
        // spectrum block of 29, multiplier 2
        const V t203 = c[18] * t202;
        const V t204 = c[19] * t202;
        // real block of 7
        const V t205 = t181 - t182;
        const V t206 = t205 - t196;
        const V t207 = c[5] * t187;
        const V t208 = t191 + t198;
        const V t209 = t208 - t207;
        // real block of 7
        const V t210 = t155 - t149;
        const V t211 = t210 - t147;
        // skew block of 14
        const V t212 = c[4] * t211;
        const V t213 = c[1] * t211;
        // real block of 7
        const V t214 = t159 - t156;
        // skew block of 14
        const V t215 = c[1] * t214;
        const V t216 = c[4] * t214;
        // real block of 7
        const V t217 = t206 - t200;
        // skew block of 14
        const V t218 = t212 - t215;
        // complex block of 2
        const V t219 = t217 + t218;
        const V t220 = t217 - t218;
        // skew block of 14
        const V t221 = t216 + t213;
        // complex block of 2
        const V t222 = t209 + t221;
        const V t223 = t221 - t209;
        // real block of 7
        const V t224 = t200 + t183;
        const V t225 = t224 + t184;
        const V t226 = c[2] * t195;
        const V t227 = c[5] * t197;
        const V t228 = t188 + t192;
        const V t229 = t228 + t227;
        // real block of 7
        const V t230 = t162 - t161;
        const V t231 = t230 + t150;
        // skew block of 14
        const V t232 = c[5] * t231;
        const V t233 = c[2] * t231;
        // real block of 7
        const V t234 = t165 + t166;
        // skew block of 14
        const V t235 = c[2] * t234;
        const V t236 = c[5] * t234;
        // real block of 7
        const V t237 = t226 - t225;
        // skew block of 14
        const V t238 = t232 + t235;
        // complex block of 2
        const V t239 = t237 + t238;
        const V t240 = t237 - t238;
        // skew block of 14
        const V t241 = t236 - t233;
        // complex block of 2
        const V t242 = t229 + t241;
        const V t243 = t229 - t241;
        // real block of 7
        const V t244 = t200 + t185;
        const V t245 = t186 - t244;
        const V t246 = c[0] * t195;
        const V t247 = c[5] * t190;
        const V t248 = t199 - t189;
        const V t249 = t248 - t247;
        // real block of 7
        const V t250 = t168 + t169;
        const V t251 = t250 + t151;
        // skew block of 14
        const V t252 = c[3] * t251;
        const V t253 = c[0] * t251;
        // real block of 7
        const V t254 = t172 - t173;
        // skew block of 14
        const V t255 = c[0] * t254;
        const V t256 = c[3] * t254;
        // real block of 7
        const V t257 = t245 - t246;
        // skew block of 14
        const V t258 = t252 + t255;
        // complex block of 2
        const V t259 = t257 - t258;
        const V t260 = t257 + t258;
        // skew block of 14
        const V t261 = t253 - t256;
        // complex block of 2
        const V t262 = t261 - t249;
        const V t263 = t249 + t261;
        // real block of 7
        const V t264 = t152 + t148;
        const V t265 = t264 - t147;
        // spectrum block of 29, multiplier 2
        const V t266 = c[19] * t265;
        const V t267 = c[18] * t265;
        // doubled bins
        const V x2r = io.re(2);
        const V t268 = two * x2r;
        const V x24r = io.re(24);
        const V t269 = two * x24r;
        // real block of 2
        const V t270 = t268 + t269;
        const V t271 = t268 - t269;
        // doubled bins
        const V x4r = io.re(4);
        const V t272 = two * x4r;
        const V x10r = io.re(10);
        const V t273 = two * x10r;
        const V x12r = io.re(12);
        const V t274 = two * x12r;
        const V x28r = io.re(28);
        const V t275 = two * x28r;
        // real block of 2
        const V t276 = t274 + t275;
        // real block of 2
        const V t277 = t273 + t272;
        // real block of 7, multiplier 2
        const V t278 = t277 + t276;
        const V t279 = t277 - t276;
        // real block of 2
        const V t280 = t274 - t275;
        // real block of 2
        const V t281 = t273 - t272;
        // real block of 7, multiplier 2
        const V t282 = t281 + t280;
        const V t283 = t281 - t280;
        // doubled bins
        const V x6r = io.re(6);
        const V t284 = two * x6r;
        const V x14r = io.re(14);
        const V t285 = two * x14r;
        // real block of 2
        const V t286 = t285 + t284;
        const V t287 = t285 - t284;
        // doubled bins
        const V x8r = io.re(8);
        const V t288 = two * x8r;
        const V x20r = io.re(20);
        const V t289 = two * x20r;
        // real block of 2
        const V t290 = t288 + t289;
        const V t291 = t288 - t289;
        // real block of 7, multiplier 2
        const V t292 = t290 + t286;
        const V t293 = c[0] * t292;
        const V t294 = c[1] * t292;
        const V t295 = c[2] * t292;
        const V t296 = t290 - t286;
        // real block of 7, multiplier 2
        const V t297 = t291 + t287;
        const V t298 = c[0] * t297;
        const V t299 = c[1] * t297;
        const V t300 = c[2] * t297;
        const V t301 = t291 - t287;
        // doubled bins
        const V x16r = io.re(16);
        const V t302 = two * x16r;
        const V x18r = io.re(18);
        const V t303 = two * x18r;
        // real block of 2
        const V t304 = t303 + t302;
        const V t305 = t303 - t302;
        // doubled bins
        const V x22r = io.re(22);
        const V t306 = two * x22r;
        const V x26r = io.re(26);
        const V t307 = two * x26r;
        // real block of 2
        const V t308 = t307 + t306;
        const V t309 = t307 - t306;
        // real block of 7, multiplier 2
        const V t310 = t304 + t308;
        const V t311 = c[0] * t310;
        const V t312 = t304 - t308;
        // real block of 7, multiplier 2
        const V t313 = t305 + t309;
        const V t314 = c[0] * t313;
        const V t315 = t305 - t309;
        // real block of 7, multiplier 2
        const V t316 = t292 + t310;
        const V t317 = t316 + t278;
        const V t318 = t317 + t270;
        // spectrum block of 29, multiplier 2
        const V t319 = c[32] * t318;
        // real block of 7, multiplier 2
        const V t320 = t270 - t293;
        const V t321 = c[1] * t310;
        const V t322 = t320 - t321;
        const V t323 = c[2] * t278;
        const V t324 = t322 + t323;
        // spectrum block of 29, multiplier 2
        const V t325 = c[6] * t324;
        const V t326 = c[7] * t324;
        // real block of 7, multiplier 2
        const V t327 = c[3] * t296;
        const V t328 = c[4] * t312;
        const V t329 = t327 + t328;
        const V t330 = c[5] * t279;
        const V t331 = t329 + t330;
        // spectrum block of 29, multiplier 2
        const V t332 = c[7] * t331;
        const V t333 = c[6] * t331;
        // real block of 7, multiplier 2
        const V t334 = t270 - t294;
        const V t335 = c[2] * t310;
        const V t336 = t334 + t335;
        const V t337 = c[0] * t278;
        const V t338 = t336 - t337;
        // spectrum block of 29, multiplier 2
        const V t339 = c[8] * t338;
        const V t340 = c[9] * t338;
        // real block of 7, multiplier 2
        const V t341 = c[4] * t296;
        const V t342 = c[5] * t312;
        const V t343 = t341 + t342;
        const V t344 = c[3] * t279;
        const V t345 = t343 - t344;
        // spectrum block of 29, multiplier 2
        const V t346 = c[9] * t345;
        const V t347 = c[8] * t345;
        // real block of 7, multiplier 2
        const V t348 = t295 - t311;
        const V t349 = c[1] * t278;
        const V t350 = t348 - t349;
        const V t351 = t350 + t270;
        // spectrum block of 29, multiplier 2
        const V t352 = c[10] * t351;
        // real block of 7, multiplier 2
        const V t353 = c[5] * t296;
        const V t354 = c[3] * t312;
        const V t355 = t353 - t354;
        const V t356 = c[4] * t279;
        const V t357 = t355 - t356;
        // spectrum block of 29, multiplier 2
        const V t358 = c[11] * t357;
        const V t359 = c[10] * t357;
        // real block of 7, multiplier 2
        const V t360 = t297 + t313;
        const V t361 = t360 + t282;
        const V t362 = t361 + t271;
        // spectrum block of 29, multiplier 2
        const V t363 = c[33] * t362;
        // real block of 7, multiplier 2
        const V t364 = t271 - t298;
        const V t365 = c[1] * t313;
        const V t366 = t364 - t365;
        const V t367 = c[2] * t282;
        const V t368 = t366 + t367;
        // spectrum block of 29, multiplier 2
        const V t369 = c[12] * t368;
        const V t370 = c[13] * t368;
        // real block of 7, multiplier 2
        const V t371 = c[3] * t301;
        const V t372 = c[4] * t315;
        const V t373 = t371 + t372;
        const V t374 = c[5] * t283;
        const V t375 = t373 + t374;
        // spectrum block of 29, multiplier 2
        const V t376 = c[13] * t375;
        const V t377 = c[12] * t375;
        // real block of 7, multiplier 2
        const V t378 = t271 - t299;
        const V t379 = c[2] * t313;
        const V t380 = t378 + t379;
        const V t381 = c[0] * t282;
        const V t382 = t380 - t381;
        // spectrum block of 29, multiplier 2
        const V t383 = c[14] * t382;
        const V t384 = c[15] * t382;
        // real block of 7, multiplier 2
        const V t385 = c[4] * t301;
        const V t386 = c[5] * t315;
        const V t387 = t385 + t386;
        const V t388 = c[3] * t283;
        const V t389 = t387 - t388;
        // spectrum block of 29, multiplier 2
        const V t390 = c[15] * t389;
        const V t391 = c[14] * t389;
        // real block of 7, multiplier 2
        const V t392 = t300 - t314;
        const V t393 = c[1] * t282;
        const V t394 = t392 - t393;
        const V t395 = t394 + t271;
        // spectrum block of 29, multiplier 2
        const V t396 = c[16] * t395;
        // real block of 7, multiplier 2
        const V t397 = c[5] * t301;
        const V t398 = c[3] * t315;
        const V t399 = t397 - t398;
        const V t400 = c[4] * t283;
        const V t401 = t399 - t400;
        // spectrum block of 29, multiplier 2
        const V t402 = c[17] * t401;
        const V t403 = c[16] * t401;
        // doubled bins
        const V x2i = io.im(2);
        const V t404 = two * x2i;
        const V x4i = io.im(4);
        const V t405 = two * x4i;
        const V x6i = io.im(6);
        const V t406 = two * x6i;
        const V x22i = io.im(22);
        const V t407 = two * x22i;
        // real block of 7
        const V t408 = t407 + t406;
        const V t409 = t407 - t406;
        // doubled bins
        const V x16i = io.im(16);
        const V t410 = two * x16i;
        const V x28i = io.im(28);
        const V t411 = two * x28i;
        // real block of 7
        const V t412 = t411 - t410;
        const V t413 = t410 + t411;
        // doubled bins
        const V x20i = io.im(20);
        const V t414 = two * x20i;
        const V x24i = io.im(24);
        const V t415 = two * x24i;
        // real block of 7
        const V t416 = t415 - t414;
        const V t417 = t414 + t415;
        const V t418 = c[1] * t417;
        const V t419 = c[2] * t417;
        const V t420 = c[0] * t417;
        const V t421 = t412 + t408;
        const V t422 = c[2] * t412;
        const V t423 = c[0] * t408;
        const V t424 = t422 - t423;
        const V t425 = c[5] * t413;
        const V t426 = c[3] * t409;
        const V t427 = t425 + t426;
        const V t428 = c[4] * t416;
        const V t429 = c[0] * t412;
        const V t430 = t405 - t429;
        const V t431 = c[1] * t408;
        const V t432 = c[3] * t413;
        const V t433 = c[4] * t409;
        const V t434 = t432 - t433;
        const V t435 = c[5] * t416;
        const V t436 = c[1] * t412;
        const V t437 = t405 - t436;
        const V t438 = c[2] * t408;
        const V t439 = c[4] * t413;
        const V t440 = c[3] * t416;
        const V t441 = t439 + t440;
        const V t442 = c[5] * t409;
        // doubled bins
        const V x8i = io.im(8);
        const V t443 = two * x8i;
        const V x14i = io.im(14);
        const V t444 = two * x14i;
        const V x18i = io.im(18);
        const V t445 = two * x18i;
        const V x26i = io.im(26);
        const V t446 = two * x26i;
        // real block of 7
        const V t447 = t444 - t443;
        const V t448 = t445 + t446;
        const V t449 = t447 - t448;
        const V t450 = c[2] * t447;
        const V t451 = c[0] * t448;
        const V t452 = c[0] * t447;
        const V t453 = c[1] * t448;
        const V t454 = c[1] * t447;
        const V t455 = c[2] * t448;
        const V t456 = t443 + t444;
        const V t457 = c[5] * t456;
        const V t458 = c[3] * t456;
        const V t459 = c[4] * t456;
        const V t460 = t446 - t445;
        const V t461 = c[3] * t460;
        const V t462 = c[4] * t460;
        // doubled bins
        const V x10i = io.im(10);
        const V t463 = two * x10i;
        const V x12i = io.im(12);
        const V t464 = two * x12i;
        // real block of 7
        const V t465 = t463 + t464;
        const V t466 = c[1] * t465;
        const V t467 = t464 - t463;
        const V t468 = c[3] * t467;
        const V t469 = t449 - t465;
        const V t470 = t469 + t404;
        // spectrum block of 29, multiplier 2
        const V t471 = c[18] * t470;
        const V t472 = c[19] * t470;
        // real block of 7
        const V t473 = t450 + t451;
        const V t474 = t473 + t466;
        const V t475 = c[4] * t467;
        const V t476 = t457 + t461;
        const V t477 = t476 + t475;
        // real block of 7
        const V t478 = t424 + t418;
        const V t479 = t478 + t405;
        // skew block of 14
        const V t480 = c[4] * t479;
        const V t481 = c[1] * t479;
        // real block of 7
        const V t482 = t427 + t428;
        // skew block of 14
        const V t483 = c[1] * t482;
        const V t484 = c[4] * t482;
        // real block of 7
        const V t485 = t474 + t404;
        // skew block of 14
        const V t486 = t480 - t483;
        // complex block of 2
        const V t487 = t485 + t486;
        const V t488 = t485 - t486;
        // skew block of 14
        const V t489 = t484 + t481;
        // complex block of 2
        const V t490 = t477 + t489;
        const V t491 = t489 - t477;
        // real block of 7
        const V t492 = t404 - t452;
        const V t493 = t492 + t453;
        const V t494 = c[2] * t465;
        const V t495 = c[5] * t467;
        const V t496 = t458 - t462;
        const V t497 = t496 - t495;
        // real block of 7
        const V t498 = t430 - t431;
        const V t499 = t498 - t419;
        // skew block of 14
        const V t500 = c[5] * t499;
        const V t501 = c[2] * t499;
        // real block of 7
        const V t502 = t434 - t435;
        // skew block of 14
        const V t503 = c[2] * t502;
        const V t504 = c[5] * t502;
        // real block of 7
        const V t505 = t493 - t494;
        // skew block of 14
        const V t506 = t500 - t503;
        // complex block of 2
        const V t507 = t505 + t506;
        const V t508 = t505 - t506;
        // skew block of 14
        const V t509 = t504 + t501;
        // complex block of 2
        const V t510 = t497 + t509;
        const V t511 = t509 - t497;
        // real block of 7
        const V t512 = t404 - t454;
        const V t513 = t512 - t455;
        const V t514 = c[0] * t465;
        const V t515 = c[5] * t460;
        const V t516 = t459 + t468;
        const V t517 = t516 - t515;
        // real block of 7
        const V t518 = t437 + t438;
        const V t519 = t518 + t420;
        // skew block of 14
        const V t520 = c[3] * t519;
        const V t521 = c[0] * t519;
        // real block of 7
        const V t522 = t441 - t442;
        // skew block of 14
        const V t523 = c[0] * t522;
        const V t524 = c[3] * t522;
        // real block of 7
        const V t525 = t513 + t514;
        // skew block of 14
        const V t526 = t520 - t523;
        // complex block of 2
        const V t527 = t525 + t526;
        const V t528 = t525 - t526;
        // skew block of 14
        const V t529 = t524 + t521;
        // complex block of 2
        const V t530 = t517 + t529;
        const V t531 = t529 - t517;
        // real block of 7
        const V t532 = t421 - t417;
        const V t533 = t532 + t405;
        // spectrum block of 29, multiplier 2
        const V t534 = c[19] * t533;
        const V t535 = c[18] * t533;
        const V x0r = io.re(0);
        const V t536 = x0r - t319;
        const V t537 = t325 - t332;
        // spectrum block of 7, multiplier 4
        const V t538 = c[2] * t537;
        const V t539 = c[0] * t537;
        const V t540 = c[1] * t537;
        // spectrum block of 29, multiplier 2
        const V t541 = t339 - t346;
        // spectrum block of 7, multiplier 4
        const V t542 = c[0] * t541;
        const V t543 = t537 + t541;
        const V t544 = t538 - t542;
        const V t545 = t536 - t539;
        const V t546 = c[1] * t541;
        const V t547 = t536 - t540;
        const V t548 = c[2] * t541;
        // spectrum block of 29, multiplier 2
        const V t549 = t352 + t358;
        // spectrum block of 7, multiplier 4
        const V t550 = c[1] * t549;
        const V t551 = c[2] * t549;
        const V t552 = c[0] * t549;
        const V t553 = t543 + t549;
        const V t554 = t553 + t536;
        const V t555 = t544 - t550;
        const V t556 = t555 + t536;
        const V t557 = t545 - t546;
        const V t558 = t557 + t551;
        const V t559 = t547 + t548;
        const V t560 = t559 - t552;
        // spectrum block of 29, multiplier 2
        const V t561 = c[20] * t530;
        const V t562 = c[21] * t527;
        const V t563 = t562 + t561;
        const V t564 = c[22] * t531;
        const V t565 = c[23] * t528;
        const V t566 = t565 + t564;
        // complex block of 7, multiplier 4
        const V t567 = t563 + t566;
        const V t568 = t566 - t563;
        // spectrum block of 29, multiplier 2
        const V t569 = c[24] * t510;
        const V t570 = c[25] * t507;
        const V t571 = t570 - t569;
        const V t572 = c[26] * t511;
        const V t573 = c[27] * t508;
        const V t574 = t573 - t572;
        // complex block of 7, multiplier 4
        const V t575 = t574 + t571;
        const V t576 = t574 - t571;
        // spectrum block of 29, multiplier 2
        const V t577 = t471 - t534;
        // complex block of 7, multiplier 4
        const V t578 = t575 - t567;
        const V t579 = c[2] * t575;
        const V t580 = c[0] * t567;
        const V t581 = t579 + t580;
        const V t582 = c[5] * t576;
        const V t583 = c[3] * t568;
        const V t584 = t582 - t583;
        const V t585 = c[0] * t575;
        const V t586 = t577 - t585;
        const V t587 = c[1] * t567;
        const V t588 = c[3] * t576;
        const V t589 = c[4] * t568;
        const V t590 = t588 + t589;
        const V t591 = c[1] * t575;
        const V t592 = t577 - t591;
        const V t593 = c[2] * t567;
        const V t594 = c[4] * t576;
        const V t595 = c[5] * t568;
        const V t596 = t594 + t595;
        // spectrum block of 29, multiplier 2
        const V t597 = c[20] * t527;
        const V t598 = c[21] * t530;
        const V t599 = t598 - t597;
        const V t600 = c[22] * t528;
        const V t601 = c[23] * t531;
        const V t602 = t601 - t600;
        // complex block of 7, multiplier 4
        const V t603 = t599 + t602;
        const V t604 = t602 - t599;
        // spectrum block of 29, multiplier 2
        const V t605 = c[24] * t507;
        const V t606 = c[25] * t510;
        const V t607 = t606 + t605;
        const V t608 = c[26] * t508;
        const V t609 = c[27] * t511;
        const V t610 = t609 + t608;
        // complex block of 7, multiplier 4
        const V t611 = t610 + t607;
        const V t612 = t607 - t610;
        // spectrum block of 29, multiplier 2
        const V t613 = t535 + t472;
        // complex block of 7, multiplier 4
        const V t614 = t611 + t603;
        const V t615 = c[2] * t611;
        const V t616 = t613 + t615;
        const V t617 = c[0] * t603;
        const V t618 = c[5] * t612;
        const V t619 = c[3] * t604;
        const V t620 = t618 - t619;
        const V t621 = c[0] * t611;
        const V t622 = c[1] * t603;
        const V t623 = t621 + t622;
        const V t624 = c[3] * t612;
        const V t625 = c[4] * t604;
        const V t626 = t624 + t625;
        const V t627 = c[1] * t611;
        const V t628 = c[2] * t603;
        const V t629 = t627 - t628;
        const V t630 = c[4] * t612;
        const V t631 = c[5] * t604;
        const V t632 = t630 + t631;
        // spectrum block of 29, multiplier 2
        const V t633 = t396 + t402;
        // spectrum block of 7, multiplier 4
        const V t634 = c[1] * t633;
        const V t635 = c[2] * t633;
        const V t636 = c[0] * t633;
        // spectrum block of 29, multiplier 2
        const V t637 = t383 - t390;
        // spectrum block of 7, multiplier 4
        const V t638 = c[0] * t637;
        // spectrum block of 29, multiplier 2
        const V t639 = t376 - t369;
        // spectrum block of 7, multiplier 4
        const V t640 = c[2] * t639;
        const V t641 = c[0] * t639;
        const V t642 = c[1] * t639;
        const V t643 = t639 + t637;
        const V t644 = t640 - t638;
        const V t645 = t363 + t641;
        const V t646 = c[1] * t637;
        const V t647 = t363 + t642;
        const V t648 = c[2] * t637;
        const V t649 = t643 + t633;
        const V t650 = t649 - t363;
        const V t651 = t644 - t634;
        const V t652 = t651 - t363;
        const V t653 = t645 + t646;
        const V t654 = t635 - t653;
        const V t655 = t648 - t647;
        const V t656 = t655 - t636;
        // spectrum block of 29, multiplier 2
        const V t657 = c[17] * t395;
        const V t658 = t657 - t403;
        const V t659 = t391 + t384;
        // spectrum block of 7, multiplier 4
        const V t660 = c[3] * t659;
        const V t661 = c[4] * t659;
        const V t662 = c[5] * t659;
        // spectrum block of 29, multiplier 2
        const V t663 = t377 + t370;
        // spectrum block of 7, multiplier 4
        const V t664 = c[5] * t663;
        const V t665 = c[3] * t663;
        const V t666 = c[4] * t663;
        const V t667 = t664 + t660;
        const V t668 = c[4] * t658;
        const V t669 = t667 - t668;
        const V t670 = t665 - t661;
        const V t671 = c[5] * t658;
        const V t672 = t670 + t671;
        const V t673 = t666 - t662;
        const V t674 = c[3] * t658;
        const V t675 = t673 - t674;
        // spectrum block of 29, multiplier 2
        const V t676 = t333 + t326;
        // spectrum block of 7, multiplier 4
        const V t677 = c[5] * t676;
        const V t678 = c[3] * t676;
        const V t679 = c[4] * t676;
        // spectrum block of 29, multiplier 2
        const V t680 = t347 + t340;
        // spectrum block of 7, multiplier 4
        const V t681 = c[3] * t680;
        const V t682 = c[4] * t680;
        const V t683 = c[5] * t680;
        // spectrum block of 29, multiplier 2
        const V t684 = c[11] * t351;
        const V t685 = t359 - t684;
        // spectrum block of 7, multiplier 4
        const V t686 = t681 - t677;
        const V t687 = c[4] * t685;
        const V t688 = t686 + t687;
        const V t689 = t678 + t682;
        const V t690 = c[5] * t685;
        const V t691 = t689 + t690;
        const V t692 = t679 + t683;
        const V t693 = c[3] * t685;
        const V t694 = t693 - t692;
        // spectrum block of 29, multiplier 2
        const V t695 = c[28] * t490;
        const V t696 = c[29] * t487;
        const V t697 = t695 - t696;
        const V t698 = c[30] * t491;
        const V t699 = c[31] * t488;
        const V t700 = t699 + t698;
        // complex block of 7, multiplier 4
        const V t701 = t697 + t700;
        const V t702 = c[1] * t701;
        const V t703 = c[2] * t701;
        const V t704 = c[0] * t701;
        const V t705 = t697 - t700;
        const V t706 = c[4] * t705;
        const V t707 = c[5] * t705;
        const V t708 = c[3] * t705;
        // spectrum block of 29, multiplier 2
        const V t709 = c[28] * t487;
        const V t710 = c[29] * t490;
        const V t711 = t710 + t709;
        const V t712 = c[30] * t488;
        const V t713 = c[31] * t491;
        const V t714 = t712 - t713;
        // complex block of 7, multiplier 4
        const V t715 = t711 + t714;
        const V t716 = c[1] * t715;
        const V t717 = c[2] * t715;
        const V t718 = c[0] * t715;
        const V t719 = t714 - t711;
        const V t720 = c[4] * t719;
        const V t721 = c[5] * t719;
        const V t722 = c[3] * t719;
        // spectrum block of 29, multiplier 2
        const V x29r = io.re(29);
        const V t723 = x29r - t51;
        const V t724 = t57 - t64;
        // spectrum block of 7, multiplier 4
        const V t725 = c[2] * t724;
        const V t726 = c[0] * t724;
        const V t727 = c[1] * t724;
        // spectrum block of 29, multiplier 2
        const V t728 = t71 - t78;
        // spectrum block of 7, multiplier 4
        const V t729 = c[0] * t728;
        const V t730 = t724 + t728;
        const V t731 = t725 - t729;
        const V t732 = t723 - t726;
        const V t733 = c[1] * t728;
        const V t734 = t723 - t727;
        const V t735 = c[2] * t728;
        // spectrum block of 29, multiplier 2
        const V t736 = t84 + t90;
        // spectrum block of 7, multiplier 4
        const V t737 = c[1] * t736;
        const V t738 = c[2] * t736;
        const V t739 = c[0] * t736;
        const V t740 = t730 + t736;
        const V t741 = t740 + t723;
        const V t742 = t731 - t737;
        const V t743 = t742 + t723;
        const V t744 = t732 - t733;
        const V t745 = t744 + t738;
        const V t746 = t734 + t735;
        const V t747 = t746 - t739;
        // spectrum block of 29, multiplier 2
        const V t748 = c[20] * t262;
        const V t749 = c[21] * t259;
        const V t750 = t748 - t749;
        const V t751 = c[22] * t263;
        const V t752 = c[23] * t260;
        const V t753 = t751 - t752;
        // complex block of 7, multiplier 4
        const V t754 = t750 + t753;
        const V t755 = t750 - t753;
        // spectrum block of 29, multiplier 2
        const V t756 = c[24] * t242;
        const V t757 = c[25] * t239;
        const V t758 = t757 + t756;
        const V t759 = c[26] * t243;
        const V t760 = c[27] * t240;
        const V t761 = t760 - t759;
        // complex block of 7, multiplier 4
        const V t762 = t761 + t758;
        const V t763 = t761 - t758;
        // spectrum block of 29, multiplier 2
        const V t764 = t203 - t266;
        // complex block of 7, multiplier 4
        const V t765 = t762 + t754;
        const V t766 = c[2] * t762;
        const V t767 = c[0] * t754;
        const V t768 = t766 - t767;
        const V t769 = c[5] * t763;
        const V t770 = c[3] * t755;
        const V t771 = t769 - t770;
        const V t772 = c[0] * t762;
        const V t773 = t764 - t772;
        const V t774 = c[1] * t754;
        const V t775 = c[3] * t763;
        const V t776 = c[4] * t755;
        const V t777 = t775 + t776;
        const V t778 = c[1] * t762;
        const V t779 = t764 - t778;
        const V t780 = c[2] * t754;
        const V t781 = c[4] * t763;
        const V t782 = c[5] * t755;
        const V t783 = t781 + t782;
        // spectrum block of 29, multiplier 2
        const V t784 = c[20] * t259;
        const V t785 = c[21] * t262;
        const V t786 = t785 + t784;
        const V t787 = c[22] * t260;
        const V t788 = c[23] * t263;
        const V t789 = t788 + t787;
        // complex block of 7, multiplier 4
        const V t790 = t786 + t789;
        const V t791 = t786 - t789;
        // spectrum block of 29, multiplier 2
        const V t792 = c[24] * t239;
        const V t793 = c[25] * t242;
        const V t794 = t793 - t792;
        const V t795 = c[26] * t240;
        const V t796 = c[27] * t243;
        const V t797 = t796 + t795;
        // complex block of 7, multiplier 4
        const V t798 = t794 - t797;
        const V t799 = t797 + t794;
        // spectrum block of 29, multiplier 2
        const V t800 = t267 + t204;
        // complex block of 7, multiplier 4
        const V t801 = t798 + t790;
        const V t802 = c[2] * t798;
        const V t803 = c[0] * t790;
        const V t804 = t802 - t803;
        const V t805 = c[5] * t799;
        const V t806 = c[3] * t791;
        const V t807 = t805 + t806;
        const V t808 = c[0] * t798;
        const V t809 = t800 + t808;
        const V t810 = c[1] * t790;
        const V t811 = c[3] * t799;
        const V t812 = c[4] * t791;
        const V t813 = t812 - t811;
        const V t814 = c[1] * t798;
        const V t815 = t800 + t814;
        const V t816 = c[2] * t790;
        const V t817 = c[4] * t799;
        const V t818 = c[5] * t791;
        const V t819 = t818 - t817;
        // spectrum block of 29, multiplier 2
        const V t820 = t128 + t134;
        // spectrum block of 7, multiplier 4
        const V t821 = c[1] * t820;
        const V t822 = c[2] * t820;
        const V t823 = c[0] * t820;
        // spectrum block of 29, multiplier 2
        const V t824 = t115 - t122;
        // spectrum block of 7, multiplier 4
        const V t825 = c[0] * t824;
        // spectrum block of 29, multiplier 2
        const V t826 = t108 - t101;
        // spectrum block of 7, multiplier 4
        const V t827 = c[2] * t826;
        const V t828 = c[0] * t826;
        const V t829 = c[1] * t826;
        const V t830 = t826 + t824;
        const V t831 = t827 - t825;
        const V t832 = t95 + t828;
        const V t833 = c[1] * t824;
        const V t834 = t95 + t829;
        const V t835 = c[2] * t824;
        const V t836 = t830 + t820;
        const V t837 = t836 - t95;
        const V t838 = t831 - t821;
        const V t839 = t838 - t95;
        const V t840 = t832 + t833;
        const V t841 = t822 - t840;
        const V t842 = t835 - t834;
        const V t843 = t842 - t823;
        // spectrum block of 29, multiplier 2
        const V t844 = c[17] * t127;
        const V t845 = t844 - t135;
        const V t846 = t123 + t116;
        // spectrum block of 7, multiplier 4
        const V t847 = c[3] * t846;
        const V t848 = c[4] * t846;
        const V t849 = c[5] * t846;
        // spectrum block of 29, multiplier 2
        const V t850 = t109 + t102;
        // spectrum block of 7, multiplier 4
        const V t851 = c[5] * t850;
        const V t852 = c[3] * t850;
        const V t853 = c[4] * t850;
        const V t854 = t851 + t847;
        const V t855 = c[4] * t845;
        const V t856 = t854 - t855;
        const V t857 = t852 - t848;
        const V t858 = c[5] * t845;
        const V t859 = t857 + t858;
        const V t860 = t853 - t849;
        const V t861 = c[3] * t845;
        const V t862 = t860 - t861;
        // spectrum block of 29, multiplier 2
        const V t863 = t65 + t58;
        // spectrum block of 7, multiplier 4
        const V t864 = c[5] * t863;
        const V t865 = c[3] * t863;
        const V t866 = c[4] * t863;
        // spectrum block of 29, multiplier 2
        const V t867 = t79 + t72;
        // spectrum block of 7, multiplier 4
        const V t868 = c[3] * t867;
        const V t869 = c[4] * t867;
        const V t870 = c[5] * t867;
        // spectrum block of 29, multiplier 2
        const V t871 = c[11] * t83;
        const V t872 = t91 - t871;
        // spectrum block of 7, multiplier 4
        const V t873 = t868 - t864;
        const V t874 = c[4] * t872;
        const V t875 = t873 + t874;
        const V t876 = t865 + t869;
        const V t877 = c[5] * t872;
        const V t878 = t876 + t877;
        const V t879 = t866 + t870;
        const V t880 = c[3] * t872;
        const V t881 = t880 - t879;
        // spectrum block of 29, multiplier 2
        const V t882 = c[28] * t222;
        const V t883 = c[29] * t219;
        const V t884 = t882 - t883;
        const V t885 = c[30] * t223;
        const V t886 = c[31] * t220;
        const V t887 = t886 + t885;
        // complex block of 7, multiplier 4
        const V t888 = t884 + t887;
        const V t889 = c[1] * t888;
        const V t890 = c[2] * t888;
        const V t891 = c[0] * t888;
        const V t892 = t884 - t887;
        const V t893 = c[4] * t892;
        const V t894 = c[5] * t892;
        const V t895 = c[3] * t892;
        // spectrum block of 29, multiplier 2
        const V t896 = c[28] * t219;
        const V t897 = c[29] * t222;
        const V t898 = t897 + t896;
        const V t899 = c[30] * t220;
        const V t900 = c[31] * t223;
        const V t901 = t899 - t900;
        // complex block of 7, multiplier 4
        const V t902 = t898 + t901;
        const V t903 = c[1] * t902;
        const V t904 = c[2] * t902;
        const V t905 = c[0] * t902;
        const V t906 = t901 - t898;
        const V t907 = c[4] * t906;
        const V t908 = c[5] * t906;
        const V t909 = c[3] * t906;
        // spectrum block of 7, multiplier 4
        const V t910 = t556 - t688;
        // spectrum block of 7, multiplier 4
        const V t911 = t652 - t669;
        // spectrum block of 2
        const V t912 = t910 + t911;
        const V t913 = t910 - t911;
        // spectrum block of 7, multiplier 4
        const V t914 = t556 + t688;
        // spectrum block of 7, multiplier 4
        const V t915 = t652 + t669;
        // spectrum block of 2
        const V t916 = t914 + t915;
        const V t917 = t914 - t915;
        // complex block of 7, multiplier 4
        const V t918 = t617 - t616;
        const V t919 = t918 + t716;
        const V t920 = t584 - t706;
        const V t921 = t919 + t920;
        const V t922 = t919 - t920;
        const V t923 = t581 - t702;
        const V t924 = t923 + t577;
        const V t925 = t620 - t720;
        const V t926 = t924 - t925;
        const V t927 = t924 + t925;
        // spectrum block of 7, multiplier 4
        const V t928 = t743 - t875;
        // spectrum block of 7, multiplier 4
        const V t929 = t839 - t856;
        // spectrum block of 2
        const V t930 = t928 + t929;
        const V t931 = t928 - t929;
        // spectrum block of 7, multiplier 4
        const V t932 = t743 + t875;
        // spectrum block of 7, multiplier 4
        const V t933 = t839 + t856;
        // spectrum block of 2
        const V t934 = t932 + t933;
        const V t935 = t932 - t933;
        // complex block of 7, multiplier 4
        const V t936 = t804 + t903;
        const V t937 = t936 - t800;
        const V t938 = t771 - t893;
        const V t939 = t937 + t938;
        const V t940 = t937 - t938;
        const V t941 = t768 - t889;
        const V t942 = t941 + t764;
        const V t943 = t807 + t907;
        const V t944 = t942 + t943;
        const V t945 = t942 - t943;
        // spectrum block of 2
        const V t946 = t912 + t926;
        // spectrum block of 2
        const V t947 = t930 + t944;
        // spectrum block of 2
        const V t948 = t946 + t947;
        io.out(46, t948);
        const V t949 = t946 - t947;
        io.out(17, t949);
        // spectrum block of 2
        const V t950 = t912 - t926;
        // spectrum block of 2
        const V t951 = t930 - t944;
        // spectrum block of 2
        const V t952 = t950 + t951;
        io.out(12, t952);
        const V t953 = t950 - t951;
        io.out(41, t953);
        // spectrum block of 2
        const V t954 = t913 + t921;
        // spectrum block of 2
        const V t955 = t931 + t939;
        // spectrum block of 2
        const V t956 = t954 + t955;
        io.out(28, t956);
        const V t957 = t954 - t955;
        io.out(57, t957);
        // spectrum block of 2
        const V t958 = t913 - t921;
        // spectrum block of 2
        const V t959 = t931 - t939;
        // spectrum block of 2
        const V t960 = t958 + t959;
        io.out(30, t960);
        const V t961 = t958 - t959;
        io.out(1, t961);
        // spectrum block of 2
        const V t962 = t916 + t927;
        // spectrum block of 2
        const V t963 = t934 + t945;
        // spectrum block of 2
        const V t964 = t962 + t963;
        io.out(48, t964);
        const V t965 = t962 - t963;
        io.out(19, t965);
        // spectrum block of 2
        const V t966 = t916 - t927;
        // spectrum block of 2
        const V t967 = t934 - t945;
        // spectrum block of 2
        const V t968 = t966 + t967;
        io.out(10, t968);
        const V t969 = t966 - t967;
        io.out(39, t969);
        // spectrum block of 2
        const V t970 = t917 + t922;
        // spectrum block of 2
        const V t971 = t935 + t940;
        // spectrum block of 2
        const V t972 = t970 + t971;
        io.out(4, t972);
        const V t973 = t970 - t971;
        io.out(33, t973);
        // spectrum block of 2
        const V t974 = t917 - t922;
        // spectrum block of 2
        const V t975 = t935 - t940;
        // spectrum block of 2
        const V t976 = t974 + t975;
        io.out(54, t976);
        const V t977 = t974 - t975;
        io.out(25, t977);
        // spectrum block of 7, multiplier 4
        const V t978 = t558 + t691;
        // spectrum block of 7, multiplier 4
        const V t979 = t654 - t672;
        // spectrum block of 2
        const V t980 = t978 + t979;
        const V t981 = t978 - t979;
        // spectrum block of 7, multiplier 4
        const V t982 = t558 - t691;
        // spectrum block of 7, multiplier 4
        const V t983 = t654 + t672;
        // spectrum block of 2
        const V t984 = t982 + t983;
        const V t985 = t982 - t983;
        // complex block of 7, multiplier 4
        const V t986 = t623 - t717;
        const V t987 = t986 - t613;
        const V t988 = t590 + t707;
        const V t989 = t987 + t988;
        const V t990 = t987 - t988;
        const V t991 = t586 + t587;
        const V t992 = t991 + t703;
        const V t993 = t626 + t721;
        const V t994 = t992 - t993;
        const V t995 = t992 + t993;
        // spectrum block of 7, multiplier 4
        const V t996 = t745 + t878;
        // spectrum block of 7, multiplier 4
        const V t997 = t841 - t859;
        // spectrum block of 2
        const V t998 = t996 + t997;
        const V t999 = t996 - t997;
        // spectrum block of 7, multiplier 4
        const V t1000 = t745 - t878;
        // spectrum block of 7, multiplier 4
        const V t1001 = t841 + t859;
        // spectrum block of 2
        const V t1002 = t1000 + t1001;
        const V t1003 = t1000 - t1001;
        // complex block of 7, multiplier 4
        const V t1004 = t809 + t810;
        const V t1005 = t1004 + t904;
        const V t1006 = t777 + t894;
        const V t1007 = t1006 - t1005;
        const V t1008 = t1005 + t1006;
        const V t1009 = t773 - t774;
        const V t1010 = t1009 + t890;
        const V t1011 = t813 + t908;
        const V t1012 = t1010 - t1011;
        const V t1013 = t1010 + t1011;
        // spectrum block of 2
        const V t1014 = t984 + t995;
        // spectrum block of 2
        const V t1015 = t1002 + t1013;
        // spectrum block of 2
        const V t1016 = t1014 + t1015;
        io.out(50, t1016);
        const V t1017 = t1014 - t1015;
        io.out(21, t1017);
        // spectrum block of 2
        const V t1018 = t984 - t995;
        // spectrum block of 2
        const V t1019 = t1002 - t1013;
        // spectrum block of 2
        const V t1020 = t1018 + t1019;
        io.out(8, t1020);
        const V t1021 = t1018 - t1019;
        io.out(37, t1021);
        // spectrum block of 2
        const V t1022 = t985 + t990;
        // spectrum block of 2
        const V t1023 = t1003 - t1008;
        // spectrum block of 2
        const V t1024 = t1022 + t1023;
        io.out(38, t1024);
        const V t1025 = t1022 - t1023;
        io.out(9, t1025);
        // spectrum block of 2
        const V t1026 = t985 - t990;
        // spectrum block of 2
        const V t1027 = t1003 + t1008;
        // spectrum block of 2
        const V t1028 = t1026 + t1027;
        io.out(20, t1028);
        const V t1029 = t1026 - t1027;
        io.out(49, t1029);
        // spectrum block of 2
        const V t1030 = t980 + t994;
        // spectrum block of 2
        const V t1031 = t998 + t1012;
        // spectrum block of 2
        const V t1032 = t1030 + t1031;
        io.out(14, t1032);
        const V t1033 = t1030 - t1031;
        io.out(43, t1033);
        // spectrum block of 2
        const V t1034 = t980 - t994;
        // spectrum block of 2
        const V t1035 = t998 - t1012;
        // spectrum block of 2
        const V t1036 = t1034 + t1035;
        io.out(44, t1036);
        const V t1037 = t1034 - t1035;
        io.out(15, t1037);
        // spectrum block of 2
        const V t1038 = t981 + t989;
        // spectrum block of 2
        const V t1039 = t999 + t1007;
        // spectrum block of 2
        const V t1040 = t1038 + t1039;
        io.out(6, t1040);
        const V t1041 = t1038 - t1039;
        io.out(35, t1041);
        // spectrum block of 2
        const V t1042 = t981 - t989;
        // spectrum block of 2
        const V t1043 = t999 - t1007;
        // spectrum block of 2
        const V t1044 = t1042 + t1043;
        io.out(52, t1044);
        const V t1045 = t1042 - t1043;
        io.out(23, t1045);
        // spectrum block of 7, multiplier 4
        const V t1046 = t560 - t694;
        // spectrum block of 7, multiplier 4
        const V t1047 = t656 - t675;
        // spectrum block of 2
        const V t1048 = t1046 + t1047;
        const V t1049 = t1046 - t1047;
        // spectrum block of 7, multiplier 4
        const V t1050 = t560 + t694;
        // spectrum block of 7, multiplier 4
        const V t1051 = t656 + t675;
        // spectrum block of 2
        const V t1052 = t1050 + t1051;
        const V t1053 = t1050 - t1051;
        // complex block of 7, multiplier 4
        const V t1054 = t629 + t718;
        const V t1055 = t1054 - t613;
        const V t1056 = t596 - t708;
        const V t1057 = t1055 + t1056;
        const V t1058 = t1055 - t1056;
        const V t1059 = t592 - t593;
        const V t1060 = t1059 - t704;
        const V t1061 = t632 - t722;
        const V t1062 = t1060 - t1061;
        const V t1063 = t1060 + t1061;
        // spectrum block of 7, multiplier 4
        const V t1064 = t747 - t881;
        // spectrum block of 7, multiplier 4
        const V t1065 = t843 - t862;
        // spectrum block of 2
        const V t1066 = t1064 + t1065;
        const V t1067 = t1064 - t1065;
        // spectrum block of 7, multiplier 4
        const V t1068 = t747 + t881;
        // spectrum block of 7, multiplier 4
        const V t1069 = t843 + t862;
        // spectrum block of 2
        const V t1070 = t1068 + t1069;
        const V t1071 = t1068 - t1069;
        // complex block of 7, multiplier 4
        const V t1072 = t816 - t815;
        const V t1073 = t1072 + t905;
        const V t1074 = t783 - t895;
        const V t1075 = t1073 + t1074;
        const V t1076 = t1073 - t1074;
        const V t1077 = t779 + t780;
        const V t1078 = t1077 - t891;
        const V t1079 = t819 - t909;
        const V t1080 = t1078 - t1079;
        const V t1081 = t1078 + t1079;
        // spectrum block of 2
        const V t1082 = t1052 + t1063;
        // spectrum block of 2
        const V t1083 = t1070 + t1081;
        // spectrum block of 2
        const V t1084 = t1082 + t1083;
        io.out(40, t1084);
        const V t1085 = t1082 - t1083;
        io.out(11, t1085);
        // spectrum block of 2
        const V t1086 = t1052 - t1063;
        // spectrum block of 2
        const V t1087 = t1070 - t1081;
        // spectrum block of 2
        const V t1088 = t1086 + t1087;
        io.out(18, t1088);
        const V t1089 = t1086 - t1087;
        io.out(47, t1089);
        // spectrum block of 2
        const V t1090 = t1053 + t1058;
        // spectrum block of 2
        const V t1091 = t1071 + t1076;
        // spectrum block of 2
        const V t1092 = t1090 + t1091;
        io.out(42, t1092);
        const V t1093 = t1090 - t1091;
        io.out(13, t1093);
        // spectrum block of 2
        const V t1094 = t1053 - t1058;
        // spectrum block of 2
        const V t1095 = t1071 - t1076;
        // spectrum block of 2
        const V t1096 = t1094 + t1095;
        io.out(16, t1096);
        const V t1097 = t1094 - t1095;
        io.out(45, t1097);
        // spectrum block of 2
        const V t1098 = t1048 + t1062;
        // spectrum block of 2
        const V t1099 = t1066 + t1080;
        // spectrum block of 2
        const V t1100 = t1098 + t1099;
        io.out(32, t1100);
        const V t1101 = t1098 - t1099;
        io.out(3, t1101);
        // spectrum block of 2
        const V t1102 = t1048 - t1062;
        // spectrum block of 2
        const V t1103 = t1066 - t1080;
        // spectrum block of 2
        const V t1104 = t1102 + t1103;
        io.out(26, t1104);
        const V t1105 = t1102 - t1103;
        io.out(55, t1105);
        // spectrum block of 2
        const V t1106 = t1049 + t1057;
        // spectrum block of 2
        const V t1107 = t1067 + t1075;
        // spectrum block of 2
        const V t1108 = t1106 + t1107;
        io.out(22, t1108);
        const V t1109 = t1106 - t1107;
        io.out(51, t1109);
        // spectrum block of 2
        const V t1110 = t1049 - t1057;
        // spectrum block of 2
        const V t1111 = t1067 - t1075;
        // spectrum block of 2
        const V t1112 = t1110 + t1111;
        io.out(36, t1112);
        const V t1113 = t1110 - t1111;
        io.out(7, t1113);
        // complex block of 7, multiplier 4
        const V t1114 = t614 + t715;
        const V t1115 = t1114 + t613;
        // spectrum block of 2
        const V t1116 = t554 - t650;
        // complex block of 7, multiplier 4
        const V t1117 = t801 - t902;
        const V t1118 = t1117 - t800;
        // spectrum block of 2
        const V t1119 = t741 - t837;
        // spectrum block of 2
        const V t1120 = t1116 - t1115;
        // spectrum block of 2
        const V t1121 = t1119 + t1118;
        // spectrum block of 2
        const V t1122 = t1120 + t1121;
        io.out(34, t1122);
        const V t1123 = t1120 - t1121;
        io.out(5, t1123);
        // spectrum block of 2
        const V t1124 = t1116 + t1115;
        // spectrum block of 2
        const V t1125 = t1119 - t1118;
        // spectrum block of 2
        const V t1126 = t1124 + t1125;
        io.out(24, t1126);
        const V t1127 = t1124 - t1125;
        io.out(53, t1127);
        // complex block of 7, multiplier 4
        const V t1128 = t578 + t701;
        const V t1129 = t1128 + t577;
        // spectrum block of 2
        const V t1130 = t554 + t650;
        // complex block of 7, multiplier 4
        const V t1131 = t765 + t888;
        const V t1132 = t1131 + t764;
        // spectrum block of 2
        const V t1133 = t741 + t837;
        // spectrum block of 2
        const V t1134 = t1130 + t1129;
        // spectrum block of 2
        const V t1135 = t1133 + t1132;
        // spectrum block of 2
        const V t1136 = t1134 + t1135;
        io.out(2, t1136);
        const V t1137 = t1134 - t1135;
        io.out(31, t1137);
        // spectrum block of 2
        const V t1138 = t1130 - t1129;
        // spectrum block of 2
        const V t1139 = t1133 - t1132;
        // spectrum block of 2
        const V t1140 = t1138 + t1139;
        io.out(56, t1140);
        const V t1141 = t1138 - t1139;
        io.out(27, t1141);
        // spectrum block of 29, multiplier 2
        const V t1142 = x0r + t318;
        // spectrum block of 29, multiplier 2
        const V t1143 = x29r + t50;
        // spectrum block of 2
        const V t1144 = t1142 + t1143;
        io.out(0, t1144);
        const V t1145 = t1142 - t1143;
        io.out(29, t1145);
    }
};

}  // namespace zulg
