// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 58.
// Complex DFT of 58 points, prime-factor, order 29, 2.
// 722 additions, 706 subtractions, 792 multiplications (908 with `scale`); 34 constants; 254 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<58> {
    static constexpr int steps = 2336;  // with `scale`
    static constexpr double inverseRoot = 0.13130643285972254;  // 1/sqrt(58), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.7818314824680298,  // c[3]: -sin 2 pi 20/7
        0.9749279121818236,  // c[4]: sin 2 pi 16/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.3609030660383976,  // c[6]: P[4] of 29
        0.1330720128259635,  // c[7]: -Q[4] of 29
        0.2786653006997481,  // c[8]: P[8] of 29
        0.26515058713755163,  // c[9]: Q[8] of 29
        0.08413784916151361,  // c[10]: P[12] of 29
        0.3753398540149231,  // c[11]: -Q[12] of 29
        0.07274108340629196,  // c[12]: -Q[7] of 29
        0.3777140697119294,  // c[13]: P[7] of 29
        0.3398943908268515,  // c[14]: Q[13] of 29
        0.1800860537573993,  // c[15]: P[13] of 29
        0.3219828698364479,  // c[16]: Q[1] of 29
        0.21044290248272673,  // c[17]: P[1] of 29
        0.36147698792300353,  // c[18]: Q[5] of 29
        0.13150502224471186,  // c[19]: -P[5] of 29
        0.13446199615788765,  // c[20]: -Q[9] of 29
        0.3603875070846735,  // c[21]: -P[9] of 29
        0.012126226322052493,  // c[22]: -Q[3] of 29
        0.384463442096457,  // c[23]: P[3] of 29
        0.38413584113980626,  // c[24]: -Q[11] of 29
        0.019970959548377194,  // c[25]: P[11] of 29
        0.2987602224736465,  // c[26]: -P[10] of 29
        0.24228395147216553,  // c[27]: -Q[10] of 29
        0.38084126020120657,  // c[28]: P[6] of 29
        0.054028864524680344,  // c[29]: -Q[6] of 29
        0.3298297662985413,  // c[30]: P[2] of 29
        0.19791793485411824,  // c[31]: Q[2] of 29
        0.03571428571428571,  // c[32]: 1/28
        0.192327314540518,  // c[33]: -beta of 29
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x57r = io.re(57);
        const V t0 = x1r + x57r;
        const V t1 = x1r - x57r;
        // real block of 2
        const V x17r = io.re(17);
        const V x41r = io.re(41);
        const V t2 = x17r + x41r;
        const V t3 = x17r - x41r;
        // real block of 2
        const V x19r = io.re(19);
        const V x39r = io.re(39);
        const V t4 = x19r + x39r;
        const V t5 = x19r - x39r;
        // real block of 2
        const V x25r = io.re(25);
        const V x33r = io.re(33);
        const V t6 = x25r + x33r;
        const V t7 = x25r - x33r;
        // real block of 2
        const V t8 = t4 + t6;
        const V t9 = t4 - t6;
        // real block of 2
        const V t10 = t2 + t0;
        const V t11 = t2 - t0;
        // complex block of 7, multiplier 4
        const V t12 = t3 + t5;
        const V t13 = t1 + t7;
        // real block of 2
        const V x3r = io.re(3);
        const V x55r = io.re(55);
        const V t14 = x3r + x55r;
        const V t15 = x3r - x55r;
        // real block of 2
        const V x7r = io.re(7);
        const V x51r = io.re(51);
        const V t16 = x7r + x51r;
        const V t17 = x7r - x51r;
        // real block of 2
        const V x11r = io.re(11);
        const V x47r = io.re(47);
        const V t18 = x11r + x47r;
        const V t19 = x11r - x47r;
        // real block of 2
        const V x45r = io.re(45);
        const V x13r = io.re(13);
        const V t20 = x45r + x13r;
        const V t21 = x45r - x13r;
        // real block of 2
        const V t22 = t14 + t16;
        const V t23 = t14 - t16;
        // real block of 2
        const V t24 = t18 + t20;
        const V t25 = t18 - t20;
        // complex block of 7, multiplier 4
        const V t26 = t15 + t19;
        const V t27 = t17 + t21;
        // real block of 2
        const V x53r = io.re(53);
        const V x5r = io.re(5);
        const V t28 = x53r + x5r;
        const V t29 = x53r - x5r;
        // real block of 2
        const V x31r = io.re(31);
        const V x27r = io.re(27);
        const V t30 = x31r + x27r;
        const V t31 = x31r - x27r;
        // real block of 2
        const V t32 = t30 + t28;
        const V t33 = t30 - t28;
        // real block of 7, multiplier 4
        const V t34 = t22 + t24;
        const V t35 = c[0] * t34;
        const V t36 = c[1] * t34;
        const V t37 = c[2] * t34;
        const V t38 = t22 - t24;
        const V t39 = t10 + t8;
        const V t40 = c[2] * t39;
        const V t41 = t10 - t8;
        // complex block of 7, multiplier 4
        const V t42 = t15 - t19;
        const V t43 = c[3] * t42;
        const V t44 = c[4] * t42;
        const V t45 = c[5] * t42;
        const V t46 = t17 - t21;
        const V t47 = c[3] * t46;
        const V t48 = c[4] * t46;
        const V t49 = c[5] * t46;
        const V t50 = t3 - t5;
        const V t51 = c[4] * t50;
        const V t52 = c[5] * t50;
        const V t53 = c[3] * t50;
        const V t54 = t1 - t7;
        const V t55 = c[4] * t54;
        const V t56 = c[5] * t54;
        const V t57 = c[3] * t54;
        const V t58 = t26 + t12;
        const V t59 = t27 + t13;
        const V t60 = c[1] * t26;
        const V t61 = c[2] * t12;
        const V t62 = t60 - t61;
        const V t63 = c[1] * t27;
        const V t64 = c[2] * t13;
        const V t65 = t63 - t64;
        const V t66 = c[2] * t26;
        const V t67 = t31 - t66;
        const V t68 = c[0] * t12;
        const V t69 = c[2] * t27;
        const V t70 = t29 - t69;
        const V t71 = c[0] * t13;
        const V t72 = c[0] * t26;
        const V t73 = t31 - t72;
        const V t74 = c[1] * t12;
        const V t75 = c[0] * t27;
        const V t76 = t29 - t75;
        const V t77 = c[1] * t13;
        // real block of 7, multiplier 4
        const V t78 = t23 + t25;
        const V t79 = c[0] * t78;
        const V t80 = c[1] * t78;
        const V t81 = c[2] * t78;
        const V t82 = t23 - t25;
        const V t83 = t11 + t9;
        const V t84 = c[2] * t83;
        const V t85 = t11 - t9;
        // real block of 2
        const V x49r = io.re(49);
        const V x9r = io.re(9);
        const V t86 = x49r + x9r;
        const V t87 = x49r - x9r;
        // real block of 2
        const V x43r = io.re(43);
        const V x15r = io.re(15);
        const V t88 = x43r + x15r;
        const V t89 = x43r - x15r;
        // real block of 2
        const V x21r = io.re(21);
        const V x37r = io.re(37);
        const V t90 = x21r + x37r;
        const V t91 = x21r - x37r;
        // real block of 2
        const V x23r = io.re(23);
        const V x35r = io.re(35);
        const V t92 = x23r + x35r;
        const V t93 = x23r - x35r;
        // real block of 2
        const V t94 = t88 + t92;
        // real block of 2
        const V t95 = t90 + t86;
        // real block of 7, multiplier 4
        const V t96 = t95 + t94;
        const V t97 = t95 - t94;
        // real block of 2
        const V t98 = t88 - t92;
        // real block of 2
        const V t99 = t90 - t86;
        // real block of 7, multiplier 4
        const V t100 = t99 + t98;
        const V t101 = t99 - t98;
        // complex block of 7, multiplier 4
        const V t102 = t91 + t89;
        const V t103 = c[0] * t102;
        const V t104 = c[1] * t102;
        const V t105 = c[2] * t102;
        const V t106 = t87 + t93;
        const V t107 = c[0] * t106;
        const V t108 = c[1] * t106;
        const V t109 = c[2] * t106;
        const V t110 = t91 - t89;
        const V t111 = c[5] * t110;
        const V t112 = c[3] * t110;
        const V t113 = c[4] * t110;
        const V t114 = t87 - t93;
        const V t115 = c[5] * t114;
        const V t116 = c[3] * t114;
        const V t117 = c[4] * t114;
        // real block of 7, multiplier 4
        const V t118 = t34 + t39;
        const V t119 = t118 + t96;
        const V t120 = t119 + t32;
        // complex block of 29, multiplier 2
        const V t121 = c[32] * t120;
        // real block of 7, multiplier 4
        const V t122 = t32 - t35;
        const V t123 = c[1] * t39;
        const V t124 = t122 + t123;
        const V t125 = c[2] * t96;
        const V t126 = t124 - t125;
        // complex block of 29, multiplier 2
        const V t127 = c[6] * t126;
        const V t128 = c[7] * t126;
        // real block of 7, multiplier 4
        const V t129 = c[5] * t38;
        const V t130 = c[3] * t41;
        const V t131 = t129 + t130;
        const V t132 = c[4] * t97;
        const V t133 = t131 - t132;
        // complex block of 29, multiplier 2
        const V t134 = c[7] * t133;
        const V t135 = c[6] * t133;
        // real block of 7, multiplier 4
        const V t136 = t36 - t40;
        const V t137 = c[0] * t96;
        const V t138 = t136 - t137;
        const V t139 = t138 + t32;
        // complex block of 29, multiplier 2
        const V t140 = c[8] * t139;
        const V t141 = c[9] * t139;
        // real block of 7, multiplier 4
        const V t142 = c[3] * t38;
        const V t143 = c[4] * t41;
        const V t144 = c[5] * t97;
        const V t145 = t143 + t144;
        const V t146 = t145 - t142;
        // complex block of 29, multiplier 2
        const V t147 = c[9] * t146;
        const V t148 = c[8] * t146;
        // real block of 7, multiplier 4
        const V t149 = t32 - t37;
        const V t150 = c[0] * t39;
        const V t151 = t149 - t150;
        const V t152 = c[1] * t96;
        const V t153 = t151 + t152;
        // complex block of 29, multiplier 2
        const V t154 = c[10] * t153;
        // real block of 7, multiplier 4
        const V t155 = c[4] * t38;
        const V t156 = c[5] * t41;
        const V t157 = t155 + t156;
        const V t158 = c[3] * t97;
        const V t159 = t157 + t158;
        // complex block of 29, multiplier 2
        const V t160 = c[11] * t159;
        const V t161 = c[10] * t159;
        // complex block of 7, multiplier 4
        const V t162 = t58 + t102;
        const V t163 = t162 + t31;
        // complex block of 29, multiplier 2
        const V t164 = c[12] * t163;
        const V t165 = c[13] * t163;
        // complex block of 7, multiplier 4
        const V t166 = t59 + t106;
        const V t167 = t166 + t29;
        // complex block of 29, multiplier 2
        const V t168 = c[13] * t167;
        const V t169 = c[12] * t167;
        // complex block of 7, multiplier 4
        const V t170 = t62 - t103;
        const V t171 = t170 + t31;
        const V t172 = t47 - t55;
        const V t173 = t172 - t115;
        const V t174 = t171 + t173;
        // complex block of 29, multiplier 2
        const V t175 = c[14] * t174;
        const V t176 = c[15] * t174;
        // complex block of 7, multiplier 4
        const V t177 = t171 - t173;
        // complex block of 29, multiplier 2
        const V t178 = c[16] * t177;
        const V t179 = c[17] * t177;
        // complex block of 7, multiplier 4
        const V t180 = t65 - t107;
        const V t181 = t180 + t29;
        const V t182 = t43 - t51;
        const V t183 = t182 - t111;
        const V t184 = t181 - t183;
        // complex block of 29, multiplier 2
        const V t185 = c[15] * t184;
        const V t186 = c[14] * t184;
        // complex block of 7, multiplier 4
        const V t187 = t181 + t183;
        // complex block of 29, multiplier 2
        const V t188 = c[17] * t187;
        const V t189 = c[16] * t187;
        // complex block of 7, multiplier 4
        const V t190 = t67 - t68;
        const V t191 = t190 + t104;
        const V t192 = t48 + t56;
        const V t193 = t192 + t116;
        const V t194 = t191 + t193;
        // complex block of 29, multiplier 2
        const V t195 = c[18] * t194;
        const V t196 = c[19] * t194;
        // complex block of 7, multiplier 4
        const V t197 = t191 - t193;
        // complex block of 29, multiplier 2
        const V t198 = c[20] * t197;
        const V t199 = c[21] * t197;
        // complex block of 7, multiplier 4
        const V t200 = t70 - t71;
        const V t201 = t200 + t108;
        const V t202 = t44 + t52;
        const V t203 = t202 + t112;
        const V t204 = t201 - t203;
        // complex block of 29, multiplier 2
        const V t205 = c[19] * t204;
        const V t206 = c[18] * t204;
        // complex block of 7, multiplier 4
        const V t207 = t201 + t203;
        // complex block of 29, multiplier 2
        const V t208 = c[21] * t207;
        const V t209 = c[20] * t207;
        // complex block of 7, multiplier 4
        const V t210 = t73 + t74;
        const V t211 = t210 - t105;
        const V t212 = t49 + t57;
        const V t213 = t212 - t117;
        const V t214 = t211 + t213;
        // complex block of 29, multiplier 2
        const V t215 = c[22] * t214;
        const V t216 = c[23] * t214;
        // complex block of 7, multiplier 4
        const V t217 = t211 - t213;
        // complex block of 29, multiplier 2
        const V t218 = c[24] * t217;
        const V t219 = c[25] * t217;
        // complex block of 7, multiplier 4
        const V t220 = t76 + t77;
        const V t221 = t220 - t109;
        const V t222 = t45 + t53;
        const V t223 = t222 - t113;
        const V t224 = t221 - t223;
        // complex block of 29, multiplier 2
        const V t225 = c[23] * t224;
        const V t226 = c[22] * t224;
        // complex block of 7, multiplier 4
        const V t227 = t221 + t223;
        // complex block of 29, multiplier 2
        const V t228 = c[25] * t227;
        const V t229 = c[24] * t227;
        // real block of 7, multiplier 4
        const V t230 = t78 + t83;
        const V t231 = t230 + t100;
        const V t232 = t231 + t33;
        // complex block of 29, multiplier 2
        const V t233 = c[33] * t232;
        // real block of 7, multiplier 4
        const V t234 = t33 - t79;
        const V t235 = c[1] * t83;
        const V t236 = t234 + t235;
        const V t237 = c[2] * t100;
        const V t238 = t236 - t237;
        // complex block of 29, multiplier 2
        const V t239 = c[26] * t238;
        const V t240 = c[27] * t238;
        // real block of 7, multiplier 4
        const V t241 = c[5] * t82;
        const V t242 = c[3] * t85;
        const V t243 = t241 + t242;
        const V t244 = c[4] * t101;
        const V t245 = t243 - t244;
        // complex block of 29, multiplier 2
        const V t246 = c[27] * t245;
        const V t247 = c[26] * t245;
        // real block of 7, multiplier 4
        const V t248 = t80 - t84;
        const V t249 = c[0] * t100;
        const V t250 = t248 - t249;
        const V t251 = t250 + t33;
        // complex block of 29, multiplier 2
        const V t252 = c[28] * t251;
        const V t253 = c[29] * t251;
        // real block of 7, multiplier 4
        const V t254 = c[3] * t82;
        const V t255 = c[4] * t85;
        const V t256 = c[5] * t101;
        const V t257 = t255 + t256;
        const V t258 = t257 - t254;
        // complex block of 29, multiplier 2
        const V t259 = c[29] * t258;
        const V t260 = c[28] * t258;
        // real block of 7, multiplier 4
        const V t261 = t33 - t81;
        const V t262 = c[0] * t83;
        const V t263 = t261 - t262;
        const V t264 = c[1] * t100;
        const V t265 = t263 + t264;
        // complex block of 29, multiplier 2
        const V t266 = c[30] * t265;
        // real block of 7, multiplier 4
        const V t267 = c[4] * t82;
        const V t268 = c[5] * t85;
        const V t269 = t267 + t268;
        const V t270 = c[3] * t101;
        const V t271 = t269 + t270;
        // complex block of 29, multiplier 2
        const V t272 = c[31] * t271;
        const V t273 = c[30] * t271;
        // real block of 2
        const V x1i = io.im(1);
        const V x57i = io.im(57);
        const V t274 = x1i + x57i;
        const V t275 = x1i - x57i;
        // real block of 2
        const V x17i = io.im(17);
        const V x41i = io.im(41);
        const V t276 = x17i + x41i;
        const V t277 = x17i - x41i;
        // real block of 2
        const V x19i = io.im(19);
        const V x39i = io.im(39);
        const V t278 = x19i + x39i;
        const V t279 = x19i - x39i;
        // real block of 2
        const V x25i = io.im(25);
        const V x33i = io.im(33);
        const V t280 = x25i + x33i;
        const V t281 = x25i - x33i;
        // real block of 2
        const V t282 = t278 + t280;
        const V t283 = t278 - t280;
        // real block of 2
        const V t284 = t276 + t274;
        const V t285 = t276 - t274;
        // complex block of 7, multiplier 4
        const V t286 = t277 + t279;
        const V t287 = t275 + t281;
        // real block of 2
        const V x3i = io.im(3);
        const V x55i = io.im(55);
        const V t288 = x3i + x55i;
        const V t289 = x3i - x55i;
        // real block of 2
        const V x7i = io.im(7);
        const V x51i = io.im(51);
        const V t290 = x7i + x51i;
        const V t291 = x7i - x51i;
        // real block of 2
        const V x11i = io.im(11);
        const V x47i = io.im(47);
        const V t292 = x11i + x47i;
        const V t293 = x11i - x47i;
        // real block of 2
        const V x45i = io.im(45);
        const V x13i = io.im(13);
        const V t294 = x45i + x13i;
        const V t295 = x45i - x13i;
        // real block of 2
        const V t296 = t288 + t290;
        const V t297 = t288 - t290;
        // real block of 2
        const V t298 = t292 + t294;
        const V t299 = t292 - t294;
        // complex block of 7, multiplier 4
        const V t300 = t289 + t293;
        const V t301 = t291 + t295;
        // real block of 2
        const V x53i = io.im(53);
        const V x5i = io.im(5);
        const V t302 = x53i + x5i;
        const V t303 = x53i - x5i;
        // real block of 2
        const V x31i = io.im(31);
        const V x27i = io.im(27);
        const V t304 = x31i + x27i;
        const V t305 = x31i - x27i;
        // real block of 2
        const V t306 = t304 + t302;
        const V t307 = t304 - t302;
        // real block of 7, multiplier 4
        const V t308 = t296 + t298;
        const V t309 = c[0] * t308;
        const V t310 = c[1] * t308;
        const V t311 = c[2] * t308;
        const V t312 = t296 - t298;
        const V t313 = t284 + t282;
        const V t314 = c[2] * t313;
        const V t315 = t284 - t282;
        // complex block of 7, multiplier 4
        const V t316 = t289 - t293;
        const V t317 = c[3] * t316;
        const V t318 = c[4] * t316;
        const V t319 = c[5] * t316;
        const V t320 = t291 - t295;
        const V t321 = c[3] * t320;
        const V t322 = c[4] * t320;
        const V t323 = c[5] * t320;
        const V t324 = t277 - t279;
        const V t325 = c[4] * t324;
        const V t326 = c[5] * t324;
        const V t327 = c[3] * t324;
        const V t328 = t275 - t281;
        const V t329 = c[4] * t328;
        const V t330 = c[5] * t328;
        const V t331 = c[3] * t328;
        const V t332 = t300 + t286;
        const V t333 = t301 + t287;
        const V t334 = c[1] * t300;
        const V t335 = c[2] * t286;
        const V t336 = t334 - t335;
        const V t337 = c[1] * t301;
        const V t338 = c[2] * t287;
        const V t339 = t337 - t338;
        const V t340 = c[2] * t300;
        const V t341 = t305 - t340;
        const V t342 = c[0] * t286;
        const V t343 = c[2] * t301;
        const V t344 = t303 - t343;
        const V t345 = c[0] * t287;
        const V t346 = c[0] * t300;
        const V t347 = t305 - t346;
        const V t348 = c[1] * t286;
        const V t349 = c[0] * t301;
        const V t350 = t303 - t349;
        const V t351 = c[1] * t287;
        // real block of 7, multiplier 4
        const V t352 = t297 + t299;
        const V t353 = c[0] * t352;
        const V t354 = c[1] * t352;
        const V t355 = c[2] * t352;
        const V t356 = t297 - t299;
        const V t357 = t285 + t283;
        const V t358 = c[2] * t357;
        const V t359 = t285 - t283;
        // real block of 2
        const V x49i = io.im(49);
        const V x9i = io.im(9);
        const V t360 = x49i + x9i;
        const V t361 = x49i - x9i;
        // real block of 2
        const V x43i = io.im(43);
        const V x15i = io.im(15);
        const V t362 = x43i + x15i;
        const V t363 = x43i - x15i;
        // real block of 2
        const V x21i = io.im(21);
        const V x37i = io.im(37);
        const V t364 = x21i + x37i;
        const V t365 = x21i - x37i;
        // real block of 2
        const V x23i = io.im(23);
        const V x35i = io.im(35);
        const V t366 = x23i + x35i;
        const V t367 = x23i - x35i;
        // real block of 2
        const V t368 = t362 + t366;
        // real block of 2
        const V t369 = t364 + t360;
        // real block of 7, multiplier 4
        const V t370 = t369 + t368;
        const V t371 = t369 - t368;
        // real block of 2
        const V t372 = t362 - t366;
        // real block of 2
        const V t373 = t364 - t360;
        // real block of 7, multiplier 4
        const V t374 = t373 + t372;
        const V t375 = t373 - t372;
        // complex block of 7, multiplier 4
        const V t376 = t365 + t363;
        const V t377 = c[0] * t376;
        const V t378 = c[1] * t376;
        const V t379 = c[2] * t376;
        const V t380 = t361 + t367;
        const V t381 = c[0] * t380;
        const V t382 = c[1] * t380;
        const V t383 = c[2] * t380;
        const V t384 = t365 - t363;
        const V t385 = c[5] * t384;
        const V t386 = c[3] * t384;
        const V t387 = c[4] * t384;
        const V t388 = t361 - t367;
        const V t389 = c[5] * t388;
        const V t390 = c[3] * t388;
        const V t391 = c[4] * t388;
        // real block of 7, multiplier 4
        const V t392 = t308 + t313;
        const V t393 = t392 + t370;
        const V t394 = t393 + t306;
        // complex block of 29, multiplier 2
        const V t395 = c[32] * t394;
        // real block of 7, multiplier 4
        const V t396 = t306 - t309;
        const V t397 = c[1] * t313;
        const V t398 = t396 + t397;
        const V t399 = c[2] * t370;
        const V t400 = t398 - t399;
        // complex block of 29, multiplier 2
        const V t401 = c[6] * t400;
        const V t402 = c[7] * t400;
        // real block of 7, multiplier 4
        const V t403 = c[5] * t312;
        const V t404 = c[3] * t315;
        const V t405 = t403 + t404;
        const V t406 = c[4] * t371;
        const V t407 = t405 - t406;
        // complex block of 29, multiplier 2
        const V t408 = c[7] * t407;
        const V t409 = c[6] * t407;
        // real block of 7, multiplier 4
        const V t410 = t310 - t314;
        const V t411 = c[0] * t370;
        const V t412 = t410 - t411;
        const V t413 = t412 + t306;
        // complex block of 29, multiplier 2
        const V t414 = c[8] * t413;
        const V t415 = c[9] * t413;
        // real block of 7, multiplier 4
        const V t416 = c[3] * t312;
        const V t417 = c[4] * t315;
        const V t418 = c[5] * t371;
        const V t419 = t417 + t418;
        const V t420 = t419 - t416;
        // complex block of 29, multiplier 2
        const V t421 = c[9] * t420;
        const V t422 = c[8] * t420;
        // real block of 7, multiplier 4
        const V t423 = t306 - t311;
        const V t424 = c[0] * t313;
        const V t425 = t423 - t424;
        const V t426 = c[1] * t370;
        const V t427 = t425 + t426;
        // complex block of 29, multiplier 2
        const V t428 = c[10] * t427;
        // real block of 7, multiplier 4
        const V t429 = c[4] * t312;
        const V t430 = c[5] * t315;
        const V t431 = t429 + t430;
        const V t432 = c[3] * t371;
        const V t433 = t431 + t432;
        // complex block of 29, multiplier 2
        const V t434 = c[11] * t433;
        const V t435 = c[10] * t433;
        // complex block of 7, multiplier 4
        const V t436 = t332 + t376;
        const V t437 = t436 + t305;
        // complex block of 29, multiplier 2
        const V t438 = c[12] * t437;
        const V t439 = c[13] * t437;
        // complex block of 7, multiplier 4
        const V t440 = t333 + t380;
        const V t441 = t440 + t303;
        // complex block of 29, multiplier 2
        const V t442 = c[13] * t441;
        const V t443 = c[12] * t441;
        // complex block of 7, multiplier 4
        const V t444 = t336 - t377;
        const V t445 = t444 + t305;
        const V t446 = t321 - t329;
        const V t447 = t446 - t389;
        const V t448 = t445 + t447;
        // complex block of 29, multiplier 2
        const V t449 = c[14] * t448;
        const V t450 = c[15] * t448;
        // complex block of 7, multiplier 4
        const V t451 = t445 - t447;
        // complex block of 29, multiplier 2
        const V t452 = c[16] * t451;
        const V t453 = c[17] * t451;
        // complex block of 7, multiplier 4
        const V t454 = t339 - t381;
        const V t455 = t454 + t303;
        const V t456 = t317 - t325;
        const V t457 = t456 - t385;
        const V t458 = t455 - t457;
        // complex block of 29, multiplier 2
        const V t459 = c[15] * t458;
        const V t460 = c[14] * t458;
        // complex block of 7, multiplier 4
        const V t461 = t455 + t457;
        // complex block of 29, multiplier 2
        const V t462 = c[17] * t461;
        const V t463 = c[16] * t461;
        // complex block of 7, multiplier 4
        const V t464 = t341 - t342;
        const V t465 = t464 + t378;
        const V t466 = t322 + t330;
        const V t467 = t466 + t390;
        const V t468 = t465 + t467;
        // complex block of 29, multiplier 2
        const V t469 = c[18] * t468;
        const V t470 = c[19] * t468;
        // complex block of 7, multiplier 4
        const V t471 = t465 - t467;
        // complex block of 29, multiplier 2
        const V t472 = c[20] * t471;
        const V t473 = c[21] * t471;
        // complex block of 7, multiplier 4
        const V t474 = t344 - t345;
        const V t475 = t474 + t382;
        const V t476 = t318 + t326;
        const V t477 = t476 + t386;
        const V t478 = t475 - t477;
        // complex block of 29, multiplier 2
        const V t479 = c[19] * t478;
        const V t480 = c[18] * t478;
        // complex block of 7, multiplier 4
        const V t481 = t475 + t477;
        // complex block of 29, multiplier 2
        const V t482 = c[21] * t481;
        const V t483 = c[20] * t481;
        // complex block of 7, multiplier 4
        const V t484 = t347 + t348;
        const V t485 = t484 - t379;
        const V t486 = t323 + t331;
        const V t487 = t486 - t391;
        const V t488 = t485 + t487;
        // complex block of 29, multiplier 2
        const V t489 = c[22] * t488;
        const V t490 = c[23] * t488;
        // complex block of 7, multiplier 4
        const V t491 = t485 - t487;
        // complex block of 29, multiplier 2
        const V t492 = c[24] * t491;
        const V t493 = c[25] * t491;
        // complex block of 7, multiplier 4
        const V t494 = t350 + t351;
        const V t495 = t494 - t383;
        const V t496 = t319 + t327;
        const V t497 = t496 - t387;
        const V t498 = t495 - t497;
        // complex block of 29, multiplier 2
        const V t499 = c[23] * t498;
        const V t500 = c[22] * t498;
        // complex block of 7, multiplier 4
        const V t501 = t495 + t497;
        // complex block of 29, multiplier 2
        const V t502 = c[25] * t501;
        const V t503 = c[24] * t501;
        // real block of 7, multiplier 4
        const V t504 = t352 + t357;
        const V t505 = t504 + t374;
        const V t506 = t505 + t307;
        // complex block of 29, multiplier 2
        const V t507 = c[33] * t506;
        // real block of 7, multiplier 4
        const V t508 = t307 - t353;
        const V t509 = c[1] * t357;
        const V t510 = t508 + t509;
        const V t511 = c[2] * t374;
        const V t512 = t510 - t511;
        // complex block of 29, multiplier 2
        const V t513 = c[26] * t512;
        const V t514 = c[27] * t512;
        // real block of 7, multiplier 4
        const V t515 = c[5] * t356;
        const V t516 = c[3] * t359;
        const V t517 = t515 + t516;
        const V t518 = c[4] * t375;
        const V t519 = t517 - t518;
        // complex block of 29, multiplier 2
        const V t520 = c[27] * t519;
        const V t521 = c[26] * t519;
        // real block of 7, multiplier 4
        const V t522 = t354 - t358;
        const V t523 = c[0] * t374;
        const V t524 = t522 - t523;
        const V t525 = t524 + t307;
        // complex block of 29, multiplier 2
        const V t526 = c[28] * t525;
        const V t527 = c[29] * t525;
        // real block of 7, multiplier 4
        const V t528 = c[3] * t356;
        const V t529 = c[4] * t359;
        const V t530 = c[5] * t375;
        const V t531 = t529 + t530;
        const V t532 = t531 - t528;
        // complex block of 29, multiplier 2
        const V t533 = c[29] * t532;
        const V t534 = c[28] * t532;
        // real block of 7, multiplier 4
        const V t535 = t307 - t355;
        const V t536 = c[0] * t357;
        const V t537 = t535 - t536;
        const V t538 = c[1] * t374;
        const V t539 = t537 + t538;
        // complex block of 29, multiplier 2
        const V t540 = c[30] * t539;
        // real block of 7, multiplier 4
        const V t541 = c[4] * t356;
        const V t542 = c[5] * t359;
        const V t543 = t541 + t542;
        const V t544 = c[3] * t375;
        const V t545 = t543 + t544;
        // complex block of 29, multiplier 2
        const V t546 = c[31] * t545;
        const V t547 = c[30] * t545;
        // real block of 2
        const V x2r = io.re(2);
        const V x56r = io.re(56);
        const V t548 = x2r + x56r;
        const V t549 = x2r - x56r;
        // real block of 2
        const V x54r = io.re(54);
        const V x4r = io.re(4);
        const V t550 = x54r + x4r;
        const V t551 = x54r - x4r;
        // real block of 2
        const V x48r = io.re(48);
        const V x10r = io.re(10);
        const V t552 = x48r + x10r;
        const V t553 = x48r - x10r;
        // real block of 2
        const V x46r = io.re(46);
        const V x12r = io.re(12);
        const V t554 = x46r + x12r;
        const V t555 = x46r - x12r;
        // real block of 2
        const V x30r = io.re(30);
        const V x28r = io.re(28);
        const V t556 = x30r + x28r;
        const V t557 = x30r - x28r;
        // real block of 2
        const V t558 = t552 + t550;
        const V t559 = t552 - t550;
        // real block of 2
        const V t560 = t554 + t556;
        const V t561 = t554 - t556;
        // complex block of 7, multiplier 4
        const V t562 = t555 + t553;
        const V t563 = t557 + t551;
        // real block of 2
        const V x16r = io.re(16);
        const V x42r = io.re(42);
        const V t564 = x16r + x42r;
        const V t565 = x16r - x42r;
        // real block of 2
        const V x40r = io.re(40);
        const V x18r = io.re(18);
        const V t566 = x40r + x18r;
        const V t567 = x40r - x18r;
        // real block of 2
        const V x36r = io.re(36);
        const V x22r = io.re(22);
        const V t568 = x36r + x22r;
        const V t569 = x36r - x22r;
        // real block of 2
        const V x32r = io.re(32);
        const V x26r = io.re(26);
        const V t570 = x32r + x26r;
        const V t571 = x32r - x26r;
        // real block of 2
        const V t572 = t570 + t568;
        const V t573 = t570 - t568;
        // real block of 2
        const V t574 = t566 + t564;
        const V t575 = t566 - t564;
        // complex block of 7, multiplier 4
        const V t576 = t571 + t567;
        const V t577 = t569 + t565;
        // real block of 2
        const V x24r = io.re(24);
        const V x34r = io.re(34);
        const V t578 = x24r + x34r;
        const V t579 = x24r - x34r;
        // real block of 2
        const V t580 = t548 + t578;
        const V t581 = t548 - t578;
        // real block of 7, multiplier 4
        const V t582 = t572 + t574;
        const V t583 = c[0] * t582;
        const V t584 = c[1] * t582;
        const V t585 = c[2] * t582;
        const V t586 = t572 - t574;
        const V t587 = t560 + t558;
        const V t588 = c[2] * t587;
        const V t589 = t560 - t558;
        // complex block of 7, multiplier 4
        const V t590 = t571 - t567;
        const V t591 = c[3] * t590;
        const V t592 = c[4] * t590;
        const V t593 = c[5] * t590;
        const V t594 = t569 - t565;
        const V t595 = c[3] * t594;
        const V t596 = c[4] * t594;
        const V t597 = c[5] * t594;
        const V t598 = t555 - t553;
        const V t599 = c[4] * t598;
        const V t600 = c[5] * t598;
        const V t601 = c[3] * t598;
        const V t602 = t557 - t551;
        const V t603 = c[4] * t602;
        const V t604 = c[5] * t602;
        const V t605 = c[3] * t602;
        const V t606 = t576 + t562;
        const V t607 = t577 + t563;
        const V t608 = c[1] * t576;
        const V t609 = c[2] * t562;
        const V t610 = t608 - t609;
        const V t611 = c[1] * t577;
        const V t612 = c[2] * t563;
        const V t613 = t611 - t612;
        const V t614 = c[2] * t576;
        const V t615 = t549 - t614;
        const V t616 = c[0] * t562;
        const V t617 = c[2] * t577;
        const V t618 = t579 - t617;
        const V t619 = c[0] * t563;
        const V t620 = c[0] * t576;
        const V t621 = t549 - t620;
        const V t622 = c[1] * t562;
        const V t623 = c[0] * t577;
        const V t624 = t579 - t623;
        const V t625 = c[1] * t563;
        // real block of 7, multiplier 4
        const V t626 = t573 + t575;
        const V t627 = c[0] * t626;
        const V t628 = c[1] * t626;
        const V t629 = c[2] * t626;
        const V t630 = t573 - t575;
        const V t631 = t561 + t559;
        const V t632 = c[2] * t631;
        const V t633 = t561 - t559;
        // real block of 2
        const V x52r = io.re(52);
        const V x6r = io.re(6);
        const V t634 = x52r + x6r;
        const V t635 = x52r - x6r;
        // real block of 2
        const V x50r = io.re(50);
        const V x8r = io.re(8);
        const V t636 = x50r + x8r;
        const V t637 = x50r - x8r;
        // real block of 2
        const V x14r = io.re(14);
        const V x44r = io.re(44);
        const V t638 = x14r + x44r;
        const V t639 = x14r - x44r;
        // real block of 2
        const V x20r = io.re(20);
        const V x38r = io.re(38);
        const V t640 = x20r + x38r;
        const V t641 = x20r - x38r;
        // real block of 2
        const V t642 = t638 + t634;
        // real block of 2
        const V t643 = t636 + t640;
        // real block of 7, multiplier 4
        const V t644 = t643 + t642;
        const V t645 = t643 - t642;
        // real block of 2
        const V t646 = t638 - t634;
        // real block of 2
        const V t647 = t636 - t640;
        // real block of 7, multiplier 4
        const V t648 = t647 + t646;
        const V t649 = t647 - t646;
        // complex block of 7, multiplier 4
        const V t650 = t637 + t639;
        const V t651 = c[0] * t650;
        const V t652 = c[1] * t650;
        const V t653 = c[2] * t650;
        const V t654 = t641 + t635;
        const V t655 = c[0] * t654;
        const V t656 = c[1] * t654;
        const V t657 = c[2] * t654;
        const V t658 = t637 - t639;
        const V t659 = c[5] * t658;
        const V t660 = c[3] * t658;
        const V t661 = c[4] * t658;
        const V t662 = t641 - t635;
        const V t663 = c[5] * t662;
        const V t664 = c[3] * t662;
        const V t665 = c[4] * t662;
        // real block of 7, multiplier 4
        const V t666 = t582 + t587;
        const V t667 = t666 + t644;
        const V t668 = t667 + t580;
        // complex block of 29, multiplier 2
        const V t669 = c[32] * t668;
        // real block of 7, multiplier 4
        const V t670 = t580 - t583;
        const V t671 = c[1] * t587;
        const V t672 = t670 + t671;
        const V t673 = c[2] * t644;
        const V t674 = t672 - t673;
        // complex block of 29, multiplier 2
        const V t675 = c[6] * t674;
        const V t676 = c[7] * t674;
        // real block of 7, multiplier 4
        const V t677 = c[5] * t586;
        const V t678 = c[3] * t589;
        const V t679 = t677 + t678;
        const V t680 = c[4] * t645;
        const V t681 = t679 - t680;
        // complex block of 29, multiplier 2
        const V t682 = c[7] * t681;
        const V t683 = c[6] * t681;
        // real block of 7, multiplier 4
        const V t684 = t584 - t588;
        const V t685 = c[0] * t644;
        const V t686 = t684 - t685;
        const V t687 = t686 + t580;
        // complex block of 29, multiplier 2
        const V t688 = c[8] * t687;
        const V t689 = c[9] * t687;
        // real block of 7, multiplier 4
        const V t690 = c[3] * t586;
        const V t691 = c[4] * t589;
        const V t692 = c[5] * t645;
        const V t693 = t691 + t692;
        const V t694 = t693 - t690;
        // complex block of 29, multiplier 2
        const V t695 = c[9] * t694;
        const V t696 = c[8] * t694;
        // real block of 7, multiplier 4
        const V t697 = t580 - t585;
        const V t698 = c[0] * t587;
        const V t699 = t697 - t698;
        const V t700 = c[1] * t644;
        const V t701 = t699 + t700;
        // complex block of 29, multiplier 2
        const V t702 = c[10] * t701;
        // real block of 7, multiplier 4
        const V t703 = c[4] * t586;
        const V t704 = c[5] * t589;
        const V t705 = t703 + t704;
        const V t706 = c[3] * t645;
        const V t707 = t705 + t706;
        // complex block of 29, multiplier 2
        const V t708 = c[11] * t707;
        const V t709 = c[10] * t707;
        // complex block of 7, multiplier 4
        const V t710 = t606 + t650;
        const V t711 = t710 + t549;
        // complex block of 29, multiplier 2
        const V t712 = c[12] * t711;
        const V t713 = c[13] * t711;
        // complex block of 7, multiplier 4
        const V t714 = t607 + t654;
        const V t715 = t714 + t579;
        // complex block of 29, multiplier 2
        const V t716 = c[13] * t715;
        const V t717 = c[12] * t715;
        // complex block of 7, multiplier 4
        const V t718 = t610 - t651;
        const V t719 = t718 + t549;
        const V t720 = t595 - t603;
        const V t721 = t720 - t663;
        const V t722 = t719 + t721;
        // complex block of 29, multiplier 2
        const V t723 = c[14] * t722;
        const V t724 = c[15] * t722;
        // complex block of 7, multiplier 4
        const V t725 = t719 - t721;
        // complex block of 29, multiplier 2
        const V t726 = c[16] * t725;
        const V t727 = c[17] * t725;
        // complex block of 7, multiplier 4
        const V t728 = t613 - t655;
        const V t729 = t728 + t579;
        const V t730 = t591 - t599;
        const V t731 = t730 - t659;
        const V t732 = t729 - t731;
        // complex block of 29, multiplier 2
        const V t733 = c[15] * t732;
        const V t734 = c[14] * t732;
        // complex block of 7, multiplier 4
        const V t735 = t729 + t731;
        // complex block of 29, multiplier 2
        const V t736 = c[17] * t735;
        const V t737 = c[16] * t735;
        // complex block of 7, multiplier 4
        const V t738 = t615 - t616;
        const V t739 = t738 + t652;
        const V t740 = t596 + t604;
        const V t741 = t740 + t664;
        const V t742 = t739 + t741;
        // complex block of 29, multiplier 2
        const V t743 = c[18] * t742;
        const V t744 = c[19] * t742;
        // complex block of 7, multiplier 4
        const V t745 = t739 - t741;
        // complex block of 29, multiplier 2
        const V t746 = c[20] * t745;
        const V t747 = c[21] * t745;
        // complex block of 7, multiplier 4
        const V t748 = t618 - t619;
        const V t749 = t748 + t656;
        const V t750 = t592 + t600;
        const V t751 = t750 + t660;
        const V t752 = t749 - t751;
        // complex block of 29, multiplier 2
        const V t753 = c[19] * t752;
        const V t754 = c[18] * t752;
        // complex block of 7, multiplier 4
        const V t755 = t749 + t751;
        // complex block of 29, multiplier 2
        const V t756 = c[21] * t755;
        const V t757 = c[20] * t755;
        // complex block of 7, multiplier 4
        const V t758 = t621 + t622;
        const V t759 = t758 - t653;
        const V t760 = t597 + t605;
        const V t761 = t760 - t665;
        const V t762 = t759 + t761;
        // complex block of 29, multiplier 2
        const V t763 = c[22] * t762;
        const V t764 = c[23] * t762;
        // complex block of 7, multiplier 4
        const V t765 = t759 - t761;
        // complex block of 29, multiplier 2
        const V t766 = c[24] * t765;
        const V t767 = c[25] * t765;
        // complex block of 7, multiplier 4
        const V t768 = t624 + t625;
        const V t769 = t768 - t657;
        const V t770 = t593 + t601;
        const V t771 = t770 - t661;
        const V t772 = t769 - t771;
        // complex block of 29, multiplier 2
        const V t773 = c[23] * t772;
        const V t774 = c[22] * t772;
        // complex block of 7, multiplier 4
        const V t775 = t769 + t771;
        // complex block of 29, multiplier 2
        const V t776 = c[25] * t775;
        const V t777 = c[24] * t775;
        // real block of 7, multiplier 4
        const V t778 = t626 + t631;
        const V t779 = t778 + t648;
        const V t780 = t779 + t581;
        // complex block of 29, multiplier 2
        const V t781 = c[33] * t780;
        // real block of 7, multiplier 4
        const V t782 = t581 - t627;
        const V t783 = c[1] * t631;
        const V t784 = t782 + t783;
        const V t785 = c[2] * t648;
        const V t786 = t784 - t785;
        // complex block of 29, multiplier 2
        const V t787 = c[26] * t786;
        const V t788 = c[27] * t786;
        // real block of 7, multiplier 4
        const V t789 = c[5] * t630;
        const V t790 = c[3] * t633;
        const V t791 = t789 + t790;
        const V t792 = c[4] * t649;
        const V t793 = t791 - t792;
        // complex block of 29, multiplier 2
        const V t794 = c[27] * t793;
        const V t795 = c[26] * t793;
        // real block of 7, multiplier 4
        const V t796 = t628 - t632;
        const V t797 = c[0] * t648;
        const V t798 = t796 - t797;
        const V t799 = t798 + t581;
        // complex block of 29, multiplier 2
        const V t800 = c[28] * t799;
        const V t801 = c[29] * t799;
        // real block of 7, multiplier 4
        const V t802 = c[3] * t630;
        const V t803 = c[4] * t633;
        const V t804 = c[5] * t649;
        const V t805 = t803 + t804;
        const V t806 = t805 - t802;
        // complex block of 29, multiplier 2
        const V t807 = c[29] * t806;
        const V t808 = c[28] * t806;
        // real block of 7, multiplier 4
        const V t809 = t581 - t629;
        const V t810 = c[0] * t631;
        const V t811 = t809 - t810;
        const V t812 = c[1] * t648;
        const V t813 = t811 + t812;
        // complex block of 29, multiplier 2
        const V t814 = c[30] * t813;
        // real block of 7, multiplier 4
        const V t815 = c[4] * t630;
        const V t816 = c[5] * t633;
        const V t817 = t815 + t816;
        const V t818 = c[3] * t649;
        const V t819 = t817 + t818;
        // complex block of 29, multiplier 2
        const V t820 = c[31] * t819;
        const V t821 = c[30] * t819;
        // real block of 2
        const V x2i = io.im(2);
        const V x56i = io.im(56);
        const V t822 = x2i + x56i;
        const V t823 = x2i - x56i;
        // real block of 2
        const V x54i = io.im(54);
        const V x4i = io.im(4);
        const V t824 = x54i + x4i;
        const V t825 = x54i - x4i;
        // real block of 2
        const V x48i = io.im(48);
        const V x10i = io.im(10);
        const V t826 = x48i + x10i;
        const V t827 = x48i - x10i;
        // real block of 2
        const V x46i = io.im(46);
        const V x12i = io.im(12);
        const V t828 = x46i + x12i;
        const V t829 = x46i - x12i;
        // real block of 2
        const V x30i = io.im(30);
        const V x28i = io.im(28);
        const V t830 = x30i + x28i;
        const V t831 = x30i - x28i;
        // real block of 2
        const V t832 = t826 + t824;
        const V t833 = t826 - t824;
        // real block of 2
        const V t834 = t828 + t830;
        const V t835 = t828 - t830;
        // complex block of 7, multiplier 4
        const V t836 = t829 + t827;
        const V t837 = t831 + t825;
        // real block of 2
        const V x16i = io.im(16);
        const V x42i = io.im(42);
        const V t838 = x16i + x42i;
        const V t839 = x16i - x42i;
        // real block of 2
        const V x40i = io.im(40);
        const V x18i = io.im(18);
        const V t840 = x40i + x18i;
        const V t841 = x40i - x18i;
        // real block of 2
        const V x36i = io.im(36);
        const V x22i = io.im(22);
        const V t842 = x36i + x22i;
        const V t843 = x36i - x22i;
        // real block of 2
        const V x32i = io.im(32);
        const V x26i = io.im(26);
        const V t844 = x32i + x26i;
        const V t845 = x32i - x26i;
        // real block of 2
        const V t846 = t844 + t842;
        const V t847 = t844 - t842;
        // real block of 2
        const V t848 = t840 + t838;
        const V t849 = t840 - t838;
        // complex block of 7, multiplier 4
        const V t850 = t845 + t841;
        const V t851 = t843 + t839;
        // real block of 2
        const V x24i = io.im(24);
        const V x34i = io.im(34);
        const V t852 = x24i + x34i;
        const V t853 = x24i - x34i;
        // real block of 2
        const V t854 = t822 + t852;
        const V t855 = t822 - t852;
        // real block of 7, multiplier 4
        const V t856 = t846 + t848;
        const V t857 = c[0] * t856;
        const V t858 = c[1] * t856;
        const V t859 = c[2] * t856;
        const V t860 = t846 - t848;
        const V t861 = t834 + t832;
        const V t862 = c[2] * t861;
        const V t863 = t834 - t832;
        // complex block of 7, multiplier 4
        const V t864 = t845 - t841;
        const V t865 = c[3] * t864;
        const V t866 = c[4] * t864;
        const V t867 = c[5] * t864;
        const V t868 = t843 - t839;
        const V t869 = c[3] * t868;
        const V t870 = c[4] * t868;
        const V t871 = c[5] * t868;
        const V t872 = t829 - t827;
        const V t873 = c[4] * t872;
        const V t874 = c[5] * t872;
        const V t875 = c[3] * t872;
        const V t876 = t831 - t825;
        const V t877 = c[4] * t876;
        const V t878 = c[5] * t876;
        const V t879 = c[3] * t876;
        const V t880 = t850 + t836;
        const V t881 = t851 + t837;
        const V t882 = c[1] * t850;
        const V t883 = c[2] * t836;
        const V t884 = t882 - t883;
        const V t885 = c[1] * t851;
        const V t886 = c[2] * t837;
        const V t887 = t885 - t886;
        const V t888 = c[2] * t850;
        const V t889 = t823 - t888;
        const V t890 = c[0] * t836;
        const V t891 = c[2] * t851;
        const V t892 = t853 - t891;
        const V t893 = c[0] * t837;
        const V t894 = c[0] * t850;
        const V t895 = t823 - t894;
        const V t896 = c[1] * t836;
        const V t897 = c[0] * t851;
        const V t898 = t853 - t897;
        const V t899 = c[1] * t837;
        // real block of 7, multiplier 4
        const V t900 = t847 + t849;
        const V t901 = c[0] * t900;
        const V t902 = c[1] * t900;
        const V t903 = c[2] * t900;
        const V t904 = t847 - t849;
        const V t905 = t835 + t833;
        const V t906 = c[2] * t905;
        const V t907 = t835 - t833;
        // real block of 2
        const V x52i = io.im(52);
        const V x6i = io.im(6);
        const V t908 = x52i + x6i;
        const V t909 = x52i - x6i;
        // real block of 2
        const V x50i = io.im(50);
        const V x8i = io.im(8);
        const V t910 = x50i + x8i;
        const V t911 = x50i - x8i;
        // real block of 2
        const V x14i = io.im(14);
        const V x44i = io.im(44);
        const V t912 = x14i + x44i;
        const V t913 = x14i - x44i;
        // real block of 2
        const V x20i = io.im(20);
        const V x38i = io.im(38);
        const V t914 = x20i + x38i;
        const V t915 = x20i - x38i;
        // real block of 2
        const V t916 = t912 + t908;
        // real block of 2
        const V t917 = t910 + t914;
        // real block of 7, multiplier 4
        const V t918 = t917 + t916;
        const V t919 = t917 - t916;
        // real block of 2
        const V t920 = t912 - t908;
        // real block of 2
        const V t921 = t910 - t914;
        // real block of 7, multiplier 4
        const V t922 = t921 + t920;
        const V t923 = t921 - t920;
        // complex block of 7, multiplier 4
        const V t924 = t911 + t913;
        const V t925 = c[0] * t924;
        const V t926 = c[1] * t924;
        const V t927 = c[2] * t924;
        const V t928 = t915 + t909;
        const V t929 = c[0] * t928;
        const V t930 = c[1] * t928;
        const V t931 = c[2] * t928;
        const V t932 = t911 - t913;
        const V t933 = c[5] * t932;
        const V t934 = c[3] * t932;
        const V t935 = c[4] * t932;
        const V t936 = t915 - t909;
        const V t937 = c[5] * t936;
        const V t938 = c[3] * t936;
        const V t939 = c[4] * t936;
        // real block of 7, multiplier 4
        const V t940 = t856 + t861;
        const V t941 = t940 + t918;
        const V t942 = t941 + t854;
        // complex block of 29, multiplier 2
        const V t943 = c[32] * t942;
        // real block of 7, multiplier 4
        const V t944 = t854 - t857;
        const V t945 = c[1] * t861;
        const V t946 = t944 + t945;
        const V t947 = c[2] * t918;
        const V t948 = t946 - t947;
        // complex block of 29, multiplier 2
        const V t949 = c[6] * t948;
        const V t950 = c[7] * t948;
        // real block of 7, multiplier 4
        const V t951 = c[5] * t860;
        const V t952 = c[3] * t863;
        const V t953 = t951 + t952;
        const V t954 = c[4] * t919;
        const V t955 = t953 - t954;
        // complex block of 29, multiplier 2
        const V t956 = c[7] * t955;
        const V t957 = c[6] * t955;
        // real block of 7, multiplier 4
        const V t958 = t858 - t862;
        const V t959 = c[0] * t918;
        const V t960 = t958 - t959;
        const V t961 = t960 + t854;
        // complex block of 29, multiplier 2
        const V t962 = c[8] * t961;
        const V t963 = c[9] * t961;
        // real block of 7, multiplier 4
        const V t964 = c[3] * t860;
        const V t965 = c[4] * t863;
        const V t966 = c[5] * t919;
        const V t967 = t965 + t966;
        const V t968 = t967 - t964;
        // complex block of 29, multiplier 2
        const V t969 = c[9] * t968;
        const V t970 = c[8] * t968;
        // real block of 7, multiplier 4
        const V t971 = t854 - t859;
        const V t972 = c[0] * t861;
        const V t973 = t971 - t972;
        const V t974 = c[1] * t918;
        const V t975 = t973 + t974;
        // complex block of 29, multiplier 2
        const V t976 = c[10] * t975;
        // real block of 7, multiplier 4
        const V t977 = c[4] * t860;
        const V t978 = c[5] * t863;
        const V t979 = t977 + t978;
        const V t980 = c[3] * t919;
        const V t981 = t979 + t980;
        // complex block of 29, multiplier 2
        const V t982 = c[11] * t981;
        const V t983 = c[10] * t981;
        // complex block of 7, multiplier 4
        const V t984 = t880 + t924;
        const V t985 = t984 + t823;
        // complex block of 29, multiplier 2
        const V t986 = c[12] * t985;
        const V t987 = c[13] * t985;
        // complex block of 7, multiplier 4
        const V t988 = t881 + t928;
        const V t989 = t988 + t853;
        // complex block of 29, multiplier 2
        const V t990 = c[13] * t989;
        const V t991 = c[12] * t989;
        // complex block of 7, multiplier 4
        const V t992 = t884 - t925;
        const V t993 = t992 + t823;
        const V t994 = t869 - t877;
        const V t995 = t994 - t937;
        const V t996 = t993 + t995;
        // complex block of 29, multiplier 2
        const V t997 = c[14] * t996;
        const V t998 = c[15] * t996;
        // complex block of 7, multiplier 4
        const V t999 = t993 - t995;
        // complex block of 29, multiplier 2
        const V t1000 = c[16] * t999;
        const V t1001 = c[17] * t999;
        // complex block of 7, multiplier 4
        const V t1002 = t887 - t929;
        const V t1003 = t1002 + t853;
        const V t1004 = t865 - t873;
        const V t1005 = t1004 - t933;
        const V t1006 = t1003 - t1005;
        // complex block of 29, multiplier 2
        const V t1007 = c[15] * t1006;
        const V t1008 = c[14] * t1006;
        // complex block of 7, multiplier 4
        const V t1009 = t1003 + t1005;
        // complex block of 29, multiplier 2
        const V t1010 = c[17] * t1009;
        const V t1011 = c[16] * t1009;
        // complex block of 7, multiplier 4
        const V t1012 = t889 - t890;
        const V t1013 = t1012 + t926;
        const V t1014 = t870 + t878;
        const V t1015 = t1014 + t938;
        const V t1016 = t1013 + t1015;
        // complex block of 29, multiplier 2
        const V t1017 = c[18] * t1016;
        const V t1018 = c[19] * t1016;
        // complex block of 7, multiplier 4
        const V t1019 = t1013 - t1015;
        // complex block of 29, multiplier 2
        const V t1020 = c[20] * t1019;
        const V t1021 = c[21] * t1019;
        // complex block of 7, multiplier 4
        const V t1022 = t892 - t893;
        const V t1023 = t1022 + t930;
        const V t1024 = t866 + t874;
        const V t1025 = t1024 + t934;
        const V t1026 = t1023 - t1025;
        // complex block of 29, multiplier 2
        const V t1027 = c[19] * t1026;
        const V t1028 = c[18] * t1026;
        // complex block of 7, multiplier 4
        const V t1029 = t1023 + t1025;
        // complex block of 29, multiplier 2
        const V t1030 = c[21] * t1029;
        const V t1031 = c[20] * t1029;
        // complex block of 7, multiplier 4
        const V t1032 = t895 + t896;
        const V t1033 = t1032 - t927;
        const V t1034 = t871 + t879;
        const V t1035 = t1034 - t939;
        const V t1036 = t1033 + t1035;
        // complex block of 29, multiplier 2
        const V t1037 = c[22] * t1036;
        const V t1038 = c[23] * t1036;
        // complex block of 7, multiplier 4
        const V t1039 = t1033 - t1035;
        // complex block of 29, multiplier 2
        const V t1040 = c[24] * t1039;
        const V t1041 = c[25] * t1039;
        // complex block of 7, multiplier 4
        const V t1042 = t898 + t899;
        const V t1043 = t1042 - t931;
        const V t1044 = t867 + t875;
        const V t1045 = t1044 - t935;
        const V t1046 = t1043 - t1045;
        // complex block of 29, multiplier 2
        const V t1047 = c[23] * t1046;
        const V t1048 = c[22] * t1046;
        // complex block of 7, multiplier 4
        const V t1049 = t1043 + t1045;
        // complex block of 29, multiplier 2
        const V t1050 = c[25] * t1049;
        const V t1051 = c[24] * t1049;
        // real block of 7, multiplier 4
        const V t1052 = t900 + t905;
        const V t1053 = t1052 + t922;
        const V t1054 = t1053 + t855;
        // complex block of 29, multiplier 2
        const V t1055 = c[33] * t1054;
        // real block of 7, multiplier 4
        const V t1056 = t855 - t901;
        const V t1057 = c[1] * t905;
        const V t1058 = t1056 + t1057;
        const V t1059 = c[2] * t922;
        const V t1060 = t1058 - t1059;
        // complex block of 29, multiplier 2
        const V t1061 = c[26] * t1060;
        const V t1062 = c[27] * t1060;
        // real block of 7, multiplier 4
        const V t1063 = c[5] * t904;
        const V t1064 = c[3] * t907;
        const V t1065 = t1063 + t1064;
        const V t1066 = c[4] * t923;
        const V t1067 = t1065 - t1066;
        // complex block of 29, multiplier 2
        const V t1068 = c[27] * t1067;
        const V t1069 = c[26] * t1067;
        // real block of 7, multiplier 4
        const V t1070 = t902 - t906;
        const V t1071 = c[0] * t922;
        const V t1072 = t1070 - t1071;
        const V t1073 = t1072 + t855;
        // complex block of 29, multiplier 2
        const V t1074 = c[28] * t1073;
        const V t1075 = c[29] * t1073;
        // real block of 7, multiplier 4
        const V t1076 = c[3] * t904;
        const V t1077 = c[4] * t907;
        const V t1078 = c[5] * t923;
        const V t1079 = t1077 + t1078;
        const V t1080 = t1079 - t1076;
        // complex block of 29, multiplier 2
        const V t1081 = c[29] * t1080;
        const V t1082 = c[28] * t1080;
        // real block of 7, multiplier 4
        const V t1083 = t855 - t903;
        const V t1084 = c[0] * t905;
        const V t1085 = t1083 - t1084;
        const V t1086 = c[1] * t922;
        const V t1087 = t1085 + t1086;
        // complex block of 29, multiplier 2
        const V t1088 = c[30] * t1087;
        // real block of 7, multiplier 4
        const V t1089 = c[4] * t904;
        const V t1090 = c[5] * t907;
        const V t1091 = t1089 + t1090;
        const V t1092 = c[3] * t923;
        const V t1093 = t1091 + t1092;
        // complex block of 29, multiplier 2
        const V t1094 = c[31] * t1093;
        const V t1095 = c[30] * t1093;
        const V x0r = io.re(0);
        const V t1096 = x0r + t668;
        // complex block of 29, multiplier 2
        const V x29r = io.re(29);
        const V t1097 = x29r + t120;
        // complex block of 2
        const V t1098 = t1096 + t1097;
        const V t1099 = t1096 - t1097;
        // complex block of 29, multiplier 2
        const V x0i = io.im(0);
        const V t1100 = x0i + t942;
        const V x29i = io.im(29);
        io.re(0, t1098);
        io.re(29, t1099);
        // complex block of 29, multiplier 2
        const V t1101 = x29i + t394;
        // complex block of 2
        const V t1102 = t1100 + t1101;
        io.im(0, t1102);
        const V t1103 = t1100 - t1101;
        io.im(29, t1103);
        // complex block of 29, multiplier 2
        const V t1104 = x0r - t669;
        // spectrum block of 2
        const V t1105 = t1104 - t781;
        const V t1106 = t1104 + t781;
        // complex block of 29, multiplier 2
        const V t1107 = t1000 + t1010;
        const V t1108 = t997 + t1007;
        // complex block of 2
        const V t1109 = t1108 + t1107;
        // complex block of 29, multiplier 2
        const V t1110 = t1001 - t1011;
        const V t1111 = t998 - t1008;
        // complex block of 2
        const V t1112 = t1111 + t1110;
        // complex block of 29, multiplier 2
        const V t1113 = t800 - t807;
        const V t1114 = t688 - t695;
        // complex block of 2
        const V t1115 = t1114 + t1113;
        const V t1116 = t1114 - t1113;
        // complex block of 2
        const V t1117 = t1110 - t1111;
        const V t1118 = t1108 - t1107;
        // complex block of 2
        const V t1119 = t1115 + t1109;
        const V t1120 = t1115 - t1109;
        // complex block of 2
        const V t1121 = t1116 - t1112;
        const V t1122 = t1116 + t1112;
        // complex block of 29, multiplier 2
        const V t1123 = t1037 + t1047;
        const V t1124 = t1040 + t1050;
        // complex block of 2
        const V t1125 = t1124 + t1123;
        // complex block of 29, multiplier 2
        const V t1126 = t1038 - t1048;
        const V t1127 = t1041 - t1051;
        // complex block of 2
        const V t1128 = t1127 + t1126;
        // complex block of 29, multiplier 2
        const V t1129 = t675 + t682;
        const V t1130 = t787 + t794;
        // complex block of 2
        const V t1131 = t1129 - t1130;
        const V t1132 = t1129 + t1130;
        // complex block of 2
        const V t1133 = t1127 - t1126;
        const V t1134 = t1123 - t1124;
        // complex block of 2
        const V t1135 = t1131 - t1125;
        const V t1136 = t1131 + t1125;
        // complex block of 2
        const V t1137 = t1132 + t1128;
        const V t1138 = t1132 - t1128;
        // complex block of 29, multiplier 2
        const V t1139 = t683 - t676;
        const V t1140 = t795 - t788;
        // complex block of 2
        const V t1141 = t1139 - t1140;
        const V t1142 = t1139 + t1140;
        // complex block of 29, multiplier 2
        const V t1143 = t808 + t801;
        const V t1144 = t696 + t689;
        // complex block of 2
        const V t1145 = t1144 + t1143;
        const V t1146 = t1144 - t1143;
        // complex block of 29, multiplier 2
        const V t1147 = t986 + t990;
        const V t1148 = t987 - t991;
        // spectrum block of 2
        const V t1149 = t1105 - t1147;
        // spectrum block of 7, multiplier 4
        const V t1150 = c[2] * t1135;
        const V t1151 = c[0] * t1135;
        const V t1152 = t1149 - t1150;
        const V t1153 = t1149 - t1151;
        // spectrum block of 2
        const V t1154 = t1105 + t1147;
        // spectrum block of 7, multiplier 4
        const V t1155 = c[2] * t1136;
        const V t1156 = c[0] * t1136;
        const V t1157 = t1154 - t1155;
        const V t1158 = t1154 - t1156;
        // spectrum block of 2
        const V t1159 = t1106 + t1148;
        // spectrum block of 7, multiplier 4
        const V t1160 = c[2] * t1137;
        const V t1161 = c[0] * t1137;
        const V t1162 = t1159 - t1160;
        const V t1163 = t1159 - t1161;
        // spectrum block of 2
        const V t1164 = t1106 - t1148;
        // spectrum block of 7, multiplier 4
        const V t1165 = c[2] * t1138;
        const V t1166 = c[0] * t1138;
        const V t1167 = t1164 - t1165;
        const V t1168 = t1164 - t1166;
        // complex block of 2
        const V t1169 = t1141 + t1133;
        // spectrum block of 7, multiplier 4
        const V t1170 = c[3] * t1169;
        const V t1171 = c[4] * t1169;
        const V t1172 = c[5] * t1169;
        // complex block of 2
        const V t1173 = t1141 - t1133;
        // spectrum block of 7, multiplier 4
        const V t1174 = c[3] * t1173;
        const V t1175 = c[4] * t1173;
        const V t1176 = c[5] * t1173;
        // complex block of 2
        const V t1177 = t1142 - t1134;
        // spectrum block of 7, multiplier 4
        const V t1178 = c[3] * t1177;
        const V t1179 = c[4] * t1177;
        const V t1180 = c[5] * t1177;
        // complex block of 2
        const V t1181 = t1142 + t1134;
        // spectrum block of 7, multiplier 4
        const V t1182 = c[3] * t1181;
        const V t1183 = c[4] * t1181;
        const V t1184 = c[5] * t1181;
        // complex block of 2
        const V t1185 = t1145 + t1117;
        // spectrum block of 7, multiplier 4
        const V t1186 = c[4] * t1185;
        const V t1187 = c[5] * t1185;
        const V t1188 = c[3] * t1185;
        // complex block of 2
        const V t1189 = t1145 - t1117;
        // spectrum block of 7, multiplier 4
        const V t1190 = c[4] * t1189;
        const V t1191 = c[5] * t1189;
        const V t1192 = c[3] * t1189;
        // complex block of 2
        const V t1193 = t1146 - t1118;
        // spectrum block of 7, multiplier 4
        const V t1194 = c[4] * t1193;
        const V t1195 = c[5] * t1193;
        const V t1196 = c[3] * t1193;
        // complex block of 2
        const V t1197 = t1146 + t1118;
        // spectrum block of 7, multiplier 4
        const V t1198 = c[4] * t1197;
        const V t1199 = c[5] * t1197;
        const V t1200 = c[3] * t1197;
        // spectrum block of 7, multiplier 4
        const V t1201 = t1135 + t1119;
        const V t1202 = c[1] * t1135;
        const V t1203 = c[2] * t1119;
        const V t1204 = t1202 - t1203;
        const V t1205 = c[0] * t1119;
        const V t1206 = c[1] * t1119;
        // spectrum block of 7, multiplier 4
        const V t1207 = t1137 + t1121;
        const V t1208 = c[1] * t1137;
        const V t1209 = c[2] * t1121;
        const V t1210 = t1208 - t1209;
        const V t1211 = c[0] * t1121;
        const V t1212 = c[1] * t1121;
        // spectrum block of 7, multiplier 4
        const V t1213 = t1136 + t1120;
        const V t1214 = c[1] * t1136;
        const V t1215 = c[2] * t1120;
        const V t1216 = t1214 - t1215;
        const V t1217 = c[0] * t1120;
        const V t1218 = c[1] * t1120;
        // spectrum block of 7, multiplier 4
        const V t1219 = t1138 + t1122;
        const V t1220 = c[1] * t1138;
        const V t1221 = c[2] * t1122;
        const V t1222 = t1220 - t1221;
        const V t1223 = c[0] * t1122;
        const V t1224 = c[1] * t1122;
        // complex block of 29, multiplier 2
        const V t1225 = t814 + t820;
        const V t1226 = t702 + t708;
        // complex block of 2
        const V t1227 = t1226 + t1225;
        const V t1228 = t1226 - t1225;
        // complex block of 29, multiplier 2
        const V t1229 = c[31] * t813;
        const V t1230 = t1229 - t821;
        const V t1231 = t1017 - t1027;
        const V t1232 = t1020 + t1030;
        // complex block of 2
        const V t1233 = t1231 - t1232;
        const V t1234 = t1232 + t1231;
        // complex block of 29, multiplier 2
        const V t1235 = t1028 + t1018;
        const V t1236 = t1031 - t1021;
        // complex block of 2
        const V t1237 = t1236 + t1235;
        const V t1238 = t1235 - t1236;
        // complex block of 29, multiplier 2
        const V t1239 = c[11] * t701;
        const V t1240 = t709 - t1239;
        // complex block of 2
        const V t1241 = t1240 - t1230;
        // complex block of 2
        const V t1242 = t1241 - t1237;
        const V t1243 = t1241 + t1237;
        // complex block of 2
        const V t1244 = t1240 + t1230;
        // complex block of 2
        const V t1245 = t1244 + t1234;
        const V t1246 = t1244 - t1234;
        // complex block of 2
        const V t1247 = t1227 + t1233;
        // spectrum block of 7, multiplier 4
        const V t1248 = c[0] * t1247;
        const V t1249 = c[1] * t1247;
        const V t1250 = c[2] * t1247;
        // complex block of 2
        const V t1251 = t1227 - t1233;
        // spectrum block of 7, multiplier 4
        const V t1252 = c[0] * t1251;
        const V t1253 = c[1] * t1251;
        const V t1254 = c[2] * t1251;
        // complex block of 2
        const V t1255 = t1228 + t1238;
        // spectrum block of 7, multiplier 4
        const V t1256 = c[0] * t1255;
        const V t1257 = c[1] * t1255;
        const V t1258 = c[2] * t1255;
        // complex block of 2
        const V t1259 = t1228 - t1238;
        // spectrum block of 7, multiplier 4
        const V t1260 = c[0] * t1259;
        const V t1261 = c[1] * t1259;
        const V t1262 = c[2] * t1259;
        // complex block of 29, multiplier 2
        const V t1263 = x29r - t121;
        // spectrum block of 2
        const V t1264 = t1263 - t233;
        const V t1265 = t1263 + t233;
        // complex block of 29, multiplier 2
        const V t1266 = t452 + t462;
        const V t1267 = t449 + t459;
        // complex block of 2
        const V t1268 = t1267 + t1266;
        // complex block of 29, multiplier 2
        const V t1269 = t453 - t463;
        const V t1270 = t450 - t460;
        // complex block of 2
        const V t1271 = t1270 + t1269;
        // complex block of 29, multiplier 2
        const V t1272 = t252 - t259;
        const V t1273 = t140 - t147;
        // complex block of 2
        const V t1274 = t1273 + t1272;
        const V t1275 = t1273 - t1272;
        // complex block of 2
        const V t1276 = t1269 - t1270;
        const V t1277 = t1267 - t1266;
        // complex block of 2
        const V t1278 = t1274 + t1268;
        const V t1279 = t1274 - t1268;
        // complex block of 2
        const V t1280 = t1275 - t1271;
        const V t1281 = t1275 + t1271;
        // complex block of 29, multiplier 2
        const V t1282 = t489 + t499;
        const V t1283 = t492 + t502;
        // complex block of 2
        const V t1284 = t1283 + t1282;
        // complex block of 29, multiplier 2
        const V t1285 = t490 - t500;
        const V t1286 = t493 - t503;
        // complex block of 2
        const V t1287 = t1286 + t1285;
        // complex block of 29, multiplier 2
        const V t1288 = t127 + t134;
        const V t1289 = t239 + t246;
        // complex block of 2
        const V t1290 = t1288 - t1289;
        const V t1291 = t1288 + t1289;
        // complex block of 2
        const V t1292 = t1286 - t1285;
        const V t1293 = t1282 - t1283;
        // complex block of 2
        const V t1294 = t1290 - t1284;
        const V t1295 = t1290 + t1284;
        // complex block of 2
        const V t1296 = t1291 + t1287;
        const V t1297 = t1291 - t1287;
        // complex block of 29, multiplier 2
        const V t1298 = t135 - t128;
        const V t1299 = t247 - t240;
        // complex block of 2
        const V t1300 = t1298 - t1299;
        const V t1301 = t1298 + t1299;
        // complex block of 29, multiplier 2
        const V t1302 = t260 + t253;
        const V t1303 = t148 + t141;
        // complex block of 2
        const V t1304 = t1303 + t1302;
        const V t1305 = t1303 - t1302;
        // complex block of 29, multiplier 2
        const V t1306 = t438 + t442;
        const V t1307 = t439 - t443;
        // spectrum block of 2
        const V t1308 = t1264 - t1306;
        // spectrum block of 7, multiplier 4
        const V t1309 = c[2] * t1294;
        const V t1310 = c[0] * t1294;
        const V t1311 = t1308 - t1309;
        const V t1312 = t1308 - t1310;
        // spectrum block of 2
        const V t1313 = t1264 + t1306;
        // spectrum block of 7, multiplier 4
        const V t1314 = c[2] * t1295;
        const V t1315 = c[0] * t1295;
        const V t1316 = t1313 - t1314;
        const V t1317 = t1313 - t1315;
        // spectrum block of 2
        const V t1318 = t1265 + t1307;
        // spectrum block of 7, multiplier 4
        const V t1319 = c[2] * t1296;
        const V t1320 = c[0] * t1296;
        const V t1321 = t1318 - t1319;
        const V t1322 = t1318 - t1320;
        // spectrum block of 2
        const V t1323 = t1265 - t1307;
        // spectrum block of 7, multiplier 4
        const V t1324 = c[2] * t1297;
        const V t1325 = c[0] * t1297;
        const V t1326 = t1323 - t1324;
        const V t1327 = t1323 - t1325;
        // complex block of 2
        const V t1328 = t1300 + t1292;
        // spectrum block of 7, multiplier 4
        const V t1329 = c[3] * t1328;
        const V t1330 = c[4] * t1328;
        const V t1331 = c[5] * t1328;
        // complex block of 2
        const V t1332 = t1300 - t1292;
        // spectrum block of 7, multiplier 4
        const V t1333 = c[3] * t1332;
        const V t1334 = c[4] * t1332;
        const V t1335 = c[5] * t1332;
        // complex block of 2
        const V t1336 = t1301 - t1293;
        // spectrum block of 7, multiplier 4
        const V t1337 = c[3] * t1336;
        const V t1338 = c[4] * t1336;
        const V t1339 = c[5] * t1336;
        // complex block of 2
        const V t1340 = t1301 + t1293;
        // spectrum block of 7, multiplier 4
        const V t1341 = c[3] * t1340;
        const V t1342 = c[4] * t1340;
        const V t1343 = c[5] * t1340;
        // complex block of 2
        const V t1344 = t1304 + t1276;
        // spectrum block of 7, multiplier 4
        const V t1345 = c[4] * t1344;
        const V t1346 = c[5] * t1344;
        const V t1347 = c[3] * t1344;
        // complex block of 2
        const V t1348 = t1304 - t1276;
        // spectrum block of 7, multiplier 4
        const V t1349 = c[4] * t1348;
        const V t1350 = c[5] * t1348;
        const V t1351 = c[3] * t1348;
        // complex block of 2
        const V t1352 = t1305 - t1277;
        // spectrum block of 7, multiplier 4
        const V t1353 = c[4] * t1352;
        const V t1354 = c[5] * t1352;
        const V t1355 = c[3] * t1352;
        // complex block of 2
        const V t1356 = t1305 + t1277;
        // spectrum block of 7, multiplier 4
        const V t1357 = c[4] * t1356;
        const V t1358 = c[5] * t1356;
        const V t1359 = c[3] * t1356;
        // spectrum block of 7, multiplier 4
        const V t1360 = t1294 + t1278;
        const V t1361 = c[1] * t1294;
        const V t1362 = c[2] * t1278;
        const V t1363 = t1361 - t1362;
        const V t1364 = c[0] * t1278;
        const V t1365 = c[1] * t1278;
        // spectrum block of 7, multiplier 4
        const V t1366 = t1296 + t1280;
        const V t1367 = c[1] * t1296;
        const V t1368 = c[2] * t1280;
        const V t1369 = t1367 - t1368;
        const V t1370 = c[0] * t1280;
        const V t1371 = c[1] * t1280;
        // spectrum block of 7, multiplier 4
        const V t1372 = t1295 + t1279;
        const V t1373 = c[1] * t1295;
        const V t1374 = c[2] * t1279;
        const V t1375 = t1373 - t1374;
        const V t1376 = c[0] * t1279;
        const V t1377 = c[1] * t1279;
        // spectrum block of 7, multiplier 4
        const V t1378 = t1297 + t1281;
        const V t1379 = c[1] * t1297;
        const V t1380 = c[2] * t1281;
        const V t1381 = t1379 - t1380;
        const V t1382 = c[0] * t1281;
        const V t1383 = c[1] * t1281;
        // complex block of 29, multiplier 2
        const V t1384 = t266 + t272;
        const V t1385 = t154 + t160;
        // complex block of 2
        const V t1386 = t1385 + t1384;
        const V t1387 = t1385 - t1384;
        // complex block of 29, multiplier 2
        const V t1388 = c[31] * t265;
        const V t1389 = t1388 - t273;
        const V t1390 = t469 - t479;
        const V t1391 = t472 + t482;
        // complex block of 2
        const V t1392 = t1390 - t1391;
        const V t1393 = t1391 + t1390;
        // complex block of 29, multiplier 2
        const V t1394 = t480 + t470;
        const V t1395 = t483 - t473;
        // complex block of 2
        const V t1396 = t1395 + t1394;
        const V t1397 = t1394 - t1395;
        // complex block of 29, multiplier 2
        const V t1398 = c[11] * t153;
        const V t1399 = t161 - t1398;
        // complex block of 2
        const V t1400 = t1399 - t1389;
        // complex block of 2
        const V t1401 = t1400 - t1396;
        const V t1402 = t1400 + t1396;
        // complex block of 2
        const V t1403 = t1399 + t1389;
        // complex block of 2
        const V t1404 = t1403 + t1393;
        const V t1405 = t1403 - t1393;
        // complex block of 2
        const V t1406 = t1386 + t1392;
        // spectrum block of 7, multiplier 4
        const V t1407 = c[0] * t1406;
        const V t1408 = c[1] * t1406;
        const V t1409 = c[2] * t1406;
        // complex block of 2
        const V t1410 = t1386 - t1392;
        // spectrum block of 7, multiplier 4
        const V t1411 = c[0] * t1410;
        const V t1412 = c[1] * t1410;
        const V t1413 = c[2] * t1410;
        // complex block of 2
        const V t1414 = t1387 + t1397;
        // spectrum block of 7, multiplier 4
        const V t1415 = c[0] * t1414;
        const V t1416 = c[1] * t1414;
        const V t1417 = c[2] * t1414;
        // complex block of 2
        const V t1418 = t1387 - t1397;
        // spectrum block of 7, multiplier 4
        const V t1419 = c[0] * t1418;
        const V t1420 = c[1] * t1418;
        const V t1421 = c[2] * t1418;
        // spectrum block of 7, multiplier 4
        const V t1422 = t1201 + t1247;
        const V t1423 = t1422 + t1149;
        // spectrum block of 7, multiplier 4
        const V t1424 = t1360 + t1406;
        const V t1425 = t1424 + t1308;
        // complex block of 2
        const V t1426 = t1423 + t1425;
        io.re(2, t1426);
        const V t1427 = t1423 - t1425;
        io.re(31, t1427);
        // spectrum block of 7, multiplier 4
        const V t1428 = t1204 - t1248;
        const V t1429 = t1428 + t1149;
        const V t1430 = t1170 + t1186;
        const V t1431 = c[5] * t1242;
        const V t1432 = t1430 + t1431;
        // spectrum block of 7, multiplier 4
        const V t1433 = t1363 - t1407;
        const V t1434 = t1433 + t1308;
        const V t1435 = t1329 + t1345;
        const V t1436 = c[5] * t1401;
        const V t1437 = t1435 + t1436;
        // spectrum block of 7, multiplier 4
        const V t1438 = t1429 - t1432;
        // spectrum block of 7, multiplier 4
        const V t1439 = t1434 - t1437;
        // complex block of 2
        const V t1440 = t1438 + t1439;
        io.re(46, t1440);
        const V t1441 = t1438 - t1439;
        io.re(17, t1441);
        // spectrum block of 7, multiplier 4
        const V t1442 = t1429 + t1432;
        // spectrum block of 7, multiplier 4
        const V t1443 = t1434 + t1437;
        // complex block of 2
        const V t1444 = t1442 + t1443;
        io.re(48, t1444);
        const V t1445 = t1442 - t1443;
        io.re(19, t1445);
        // spectrum block of 7, multiplier 4
        const V t1446 = t1152 - t1205;
        const V t1447 = t1446 + t1249;
        const V t1448 = t1171 - t1187;
        const V t1449 = c[3] * t1242;
        const V t1450 = t1448 - t1449;
        // spectrum block of 7, multiplier 4
        const V t1451 = t1311 - t1364;
        const V t1452 = t1451 + t1408;
        const V t1453 = t1330 - t1346;
        const V t1454 = c[3] * t1401;
        const V t1455 = t1453 - t1454;
        // spectrum block of 7, multiplier 4
        const V t1456 = t1447 - t1450;
        // spectrum block of 7, multiplier 4
        const V t1457 = t1452 - t1455;
        // complex block of 2
        const V t1458 = t1456 + t1457;
        io.re(14, t1458);
        const V t1459 = t1456 - t1457;
        io.re(43, t1459);
        // spectrum block of 7, multiplier 4
        const V t1460 = t1447 + t1450;
        // spectrum block of 7, multiplier 4
        const V t1461 = t1452 + t1455;
        // complex block of 2
        const V t1462 = t1460 + t1461;
        io.re(50, t1462);
        const V t1463 = t1460 - t1461;
        io.re(21, t1463);
        // spectrum block of 7, multiplier 4
        const V t1464 = t1153 + t1206;
        const V t1465 = t1464 - t1250;
        const V t1466 = t1172 - t1188;
        const V t1467 = c[4] * t1242;
        const V t1468 = t1466 + t1467;
        // spectrum block of 7, multiplier 4
        const V t1469 = t1312 + t1365;
        const V t1470 = t1469 - t1409;
        const V t1471 = t1331 - t1347;
        const V t1472 = c[4] * t1401;
        const V t1473 = t1471 + t1472;
        // spectrum block of 7, multiplier 4
        const V t1474 = t1465 - t1468;
        // spectrum block of 7, multiplier 4
        const V t1475 = t1470 - t1473;
        // complex block of 2
        const V t1476 = t1474 + t1475;
        io.re(32, t1476);
        const V t1477 = t1474 - t1475;
        io.re(3, t1477);
        // spectrum block of 7, multiplier 4
        const V t1478 = t1465 + t1468;
        // spectrum block of 7, multiplier 4
        const V t1479 = t1470 + t1473;
        // complex block of 2
        const V t1480 = t1478 + t1479;
        io.re(40, t1480);
        const V t1481 = t1478 - t1479;
        io.re(11, t1481);
        // spectrum block of 7, multiplier 4
        const V t1482 = t1207 + t1255;
        const V t1483 = t1482 + t1159;
        // spectrum block of 7, multiplier 4
        const V t1484 = t1366 + t1414;
        const V t1485 = t1484 + t1318;
        // complex block of 2
        const V t1486 = t1483 + t1485;
        io.re(34, t1486);
        const V t1487 = t1483 - t1485;
        io.re(5, t1487);
        // spectrum block of 7, multiplier 4
        const V t1488 = t1210 - t1256;
        const V t1489 = t1488 + t1159;
        const V t1490 = t1178 + t1194;
        const V t1491 = c[5] * t1245;
        const V t1492 = t1490 + t1491;
        // spectrum block of 7, multiplier 4
        const V t1493 = t1369 - t1415;
        const V t1494 = t1493 + t1318;
        const V t1495 = t1337 + t1353;
        const V t1496 = c[5] * t1404;
        const V t1497 = t1495 + t1496;
        // spectrum block of 7, multiplier 4
        const V t1498 = t1489 - t1492;
        // spectrum block of 7, multiplier 4
        const V t1499 = t1494 - t1497;
        // complex block of 2
        const V t1500 = t1498 + t1499;
        io.re(28, t1500);
        const V t1501 = t1498 - t1499;
        io.re(57, t1501);
        // spectrum block of 7, multiplier 4
        const V t1502 = t1489 + t1492;
        // spectrum block of 7, multiplier 4
        const V t1503 = t1494 + t1497;
        // complex block of 2
        const V t1504 = t1502 + t1503;
        io.re(4, t1504);
        const V t1505 = t1502 - t1503;
        io.re(33, t1505);
        // spectrum block of 7, multiplier 4
        const V t1506 = t1162 - t1211;
        const V t1507 = t1506 + t1257;
        const V t1508 = t1179 - t1195;
        const V t1509 = c[3] * t1245;
        const V t1510 = t1508 - t1509;
        // spectrum block of 7, multiplier 4
        const V t1511 = t1321 - t1370;
        const V t1512 = t1511 + t1416;
        const V t1513 = t1338 - t1354;
        const V t1514 = c[3] * t1404;
        const V t1515 = t1513 - t1514;
        // spectrum block of 7, multiplier 4
        const V t1516 = t1507 - t1510;
        // spectrum block of 7, multiplier 4
        const V t1517 = t1512 - t1515;
        // complex block of 2
        const V t1518 = t1516 + t1517;
        io.re(6, t1518);
        const V t1519 = t1516 - t1517;
        io.re(35, t1519);
        // spectrum block of 7, multiplier 4
        const V t1520 = t1507 + t1510;
        // spectrum block of 7, multiplier 4
        const V t1521 = t1512 + t1515;
        // complex block of 2
        const V t1522 = t1520 + t1521;
        io.re(38, t1522);
        const V t1523 = t1520 - t1521;
        io.re(9, t1523);
        // spectrum block of 7, multiplier 4
        const V t1524 = t1163 + t1212;
        const V t1525 = t1524 - t1258;
        const V t1526 = t1180 - t1196;
        const V t1527 = c[4] * t1245;
        const V t1528 = t1526 + t1527;
        // spectrum block of 7, multiplier 4
        const V t1529 = t1322 + t1371;
        const V t1530 = t1529 - t1417;
        const V t1531 = t1339 - t1355;
        const V t1532 = c[4] * t1404;
        const V t1533 = t1531 + t1532;
        // spectrum block of 7, multiplier 4
        const V t1534 = t1525 - t1528;
        // spectrum block of 7, multiplier 4
        const V t1535 = t1530 - t1533;
        // complex block of 2
        const V t1536 = t1534 + t1535;
        io.re(22, t1536);
        const V t1537 = t1534 - t1535;
        io.re(51, t1537);
        // spectrum block of 7, multiplier 4
        const V t1538 = t1525 + t1528;
        // spectrum block of 7, multiplier 4
        const V t1539 = t1530 + t1533;
        // complex block of 2
        const V t1540 = t1538 + t1539;
        io.re(42, t1540);
        const V t1541 = t1538 - t1539;
        io.re(13, t1541);
        // spectrum block of 7, multiplier 4
        const V t1542 = t1213 + t1251;
        const V t1543 = t1542 + t1154;
        // spectrum block of 7, multiplier 4
        const V t1544 = t1372 + t1410;
        const V t1545 = t1544 + t1313;
        // complex block of 2
        const V t1546 = t1543 + t1545;
        io.re(56, t1546);
        const V t1547 = t1543 - t1545;
        io.re(27, t1547);
        // spectrum block of 7, multiplier 4
        const V t1548 = t1216 - t1252;
        const V t1549 = t1548 + t1154;
        const V t1550 = t1174 + t1190;
        const V t1551 = c[5] * t1243;
        const V t1552 = t1550 + t1551;
        // spectrum block of 7, multiplier 4
        const V t1553 = t1375 - t1411;
        const V t1554 = t1553 + t1313;
        const V t1555 = t1333 + t1349;
        const V t1556 = c[5] * t1402;
        const V t1557 = t1555 + t1556;
        // spectrum block of 7, multiplier 4
        const V t1558 = t1549 - t1552;
        // spectrum block of 7, multiplier 4
        const V t1559 = t1554 - t1557;
        // complex block of 2
        const V t1560 = t1558 + t1559;
        io.re(12, t1560);
        const V t1561 = t1558 - t1559;
        io.re(41, t1561);
        // spectrum block of 7, multiplier 4
        const V t1562 = t1549 + t1552;
        // spectrum block of 7, multiplier 4
        const V t1563 = t1554 + t1557;
        // complex block of 2
        const V t1564 = t1562 + t1563;
        io.re(10, t1564);
        const V t1565 = t1562 - t1563;
        io.re(39, t1565);
        // spectrum block of 7, multiplier 4
        const V t1566 = t1157 - t1217;
        const V t1567 = t1566 + t1253;
        const V t1568 = t1175 - t1191;
        const V t1569 = c[3] * t1243;
        const V t1570 = t1568 - t1569;
        // spectrum block of 7, multiplier 4
        const V t1571 = t1316 - t1376;
        const V t1572 = t1571 + t1412;
        const V t1573 = t1334 - t1350;
        const V t1574 = c[3] * t1402;
        const V t1575 = t1573 - t1574;
        // spectrum block of 7, multiplier 4
        const V t1576 = t1567 - t1570;
        // spectrum block of 7, multiplier 4
        const V t1577 = t1572 - t1575;
        // complex block of 2
        const V t1578 = t1576 + t1577;
        io.re(44, t1578);
        const V t1579 = t1576 - t1577;
        io.re(15, t1579);
        // spectrum block of 7, multiplier 4
        const V t1580 = t1567 + t1570;
        // spectrum block of 7, multiplier 4
        const V t1581 = t1572 + t1575;
        // complex block of 2
        const V t1582 = t1580 + t1581;
        io.re(8, t1582);
        const V t1583 = t1580 - t1581;
        io.re(37, t1583);
        // spectrum block of 7, multiplier 4
        const V t1584 = t1158 + t1218;
        const V t1585 = t1584 - t1254;
        const V t1586 = t1176 - t1192;
        const V t1587 = c[4] * t1243;
        const V t1588 = t1586 + t1587;
        // spectrum block of 7, multiplier 4
        const V t1589 = t1317 + t1377;
        const V t1590 = t1589 - t1413;
        const V t1591 = t1335 - t1351;
        const V t1592 = c[4] * t1402;
        const V t1593 = t1591 + t1592;
        // spectrum block of 7, multiplier 4
        const V t1594 = t1585 - t1588;
        // spectrum block of 7, multiplier 4
        const V t1595 = t1590 - t1593;
        // complex block of 2
        const V t1596 = t1594 + t1595;
        io.re(26, t1596);
        const V t1597 = t1594 - t1595;
        io.re(55, t1597);
        // spectrum block of 7, multiplier 4
        const V t1598 = t1585 + t1588;
        // spectrum block of 7, multiplier 4
        const V t1599 = t1590 + t1593;
        // complex block of 2
        const V t1600 = t1598 + t1599;
        io.re(18, t1600);
        const V t1601 = t1598 - t1599;
        io.re(47, t1601);
        // spectrum block of 7, multiplier 4
        const V t1602 = t1219 + t1259;
        const V t1603 = t1602 + t1164;
        // spectrum block of 7, multiplier 4
        const V t1604 = t1378 + t1418;
        const V t1605 = t1604 + t1323;
        // complex block of 2
        const V t1606 = t1603 + t1605;
        io.re(24, t1606);
        const V t1607 = t1603 - t1605;
        io.re(53, t1607);
        // spectrum block of 7, multiplier 4
        const V t1608 = t1222 - t1260;
        const V t1609 = t1608 + t1164;
        const V t1610 = t1182 + t1198;
        const V t1611 = c[5] * t1246;
        const V t1612 = t1610 + t1611;
        // spectrum block of 7, multiplier 4
        const V t1613 = t1381 - t1419;
        const V t1614 = t1613 + t1323;
        const V t1615 = t1341 + t1357;
        const V t1616 = c[5] * t1405;
        const V t1617 = t1615 + t1616;
        // spectrum block of 7, multiplier 4
        const V t1618 = t1609 - t1612;
        // spectrum block of 7, multiplier 4
        const V t1619 = t1614 - t1617;
        // complex block of 2
        const V t1620 = t1618 + t1619;
        io.re(30, t1620);
        const V t1621 = t1618 - t1619;
        io.re(1, t1621);
        // spectrum block of 7, multiplier 4
        const V t1622 = t1609 + t1612;
        // spectrum block of 7, multiplier 4
        const V t1623 = t1614 + t1617;
        // complex block of 2
        const V t1624 = t1622 + t1623;
        io.re(54, t1624);
        const V t1625 = t1622 - t1623;
        io.re(25, t1625);
        // spectrum block of 7, multiplier 4
        const V t1626 = t1167 - t1223;
        const V t1627 = t1626 + t1261;
        const V t1628 = t1183 - t1199;
        const V t1629 = c[3] * t1246;
        const V t1630 = t1628 - t1629;
        // spectrum block of 7, multiplier 4
        const V t1631 = t1326 - t1382;
        const V t1632 = t1631 + t1420;
        const V t1633 = t1342 - t1358;
        const V t1634 = c[3] * t1405;
        const V t1635 = t1633 - t1634;
        // spectrum block of 7, multiplier 4
        const V t1636 = t1627 - t1630;
        // spectrum block of 7, multiplier 4
        const V t1637 = t1632 - t1635;
        // complex block of 2
        const V t1638 = t1636 + t1637;
        io.re(52, t1638);
        const V t1639 = t1636 - t1637;
        io.re(23, t1639);
        // spectrum block of 7, multiplier 4
        const V t1640 = t1627 + t1630;
        // spectrum block of 7, multiplier 4
        const V t1641 = t1632 + t1635;
        // complex block of 2
        const V t1642 = t1640 + t1641;
        io.re(20, t1642);
        const V t1643 = t1640 - t1641;
        io.re(49, t1643);
        // spectrum block of 7, multiplier 4
        const V t1644 = t1168 + t1224;
        const V t1645 = t1644 - t1262;
        const V t1646 = t1184 - t1200;
        const V t1647 = c[4] * t1246;
        const V t1648 = t1646 + t1647;
        // spectrum block of 7, multiplier 4
        const V t1649 = t1327 + t1383;
        const V t1650 = t1649 - t1421;
        const V t1651 = t1343 - t1359;
        const V t1652 = c[4] * t1405;
        const V t1653 = t1651 + t1652;
        // spectrum block of 7, multiplier 4
        const V t1654 = t1645 - t1648;
        // spectrum block of 7, multiplier 4
        const V t1655 = t1650 - t1653;
        // complex block of 2
        const V t1656 = t1654 + t1655;
        io.re(36, t1656);
        const V t1657 = t1654 - t1655;
        io.re(7, t1657);
        // spectrum block of 7, multiplier 4
        const V t1658 = t1645 + t1648;
        // spectrum block of 7, multiplier 4
        const V t1659 = t1650 + t1653;
        // complex block of 2
        const V t1660 = t1658 + t1659;
        io.re(16, t1660);
        const V t1661 = t1658 - t1659;
        io.re(45, t1661);
        // complex block of 29, multiplier 2
        const V t1662 = x0i - t943;
        // spectrum block of 2
        const V t1663 = t1662 - t1055;
        const V t1664 = t1662 + t1055;
        // complex block of 29, multiplier 2
        const V t1665 = t726 + t736;
        const V t1666 = t723 + t733;
        // complex block of 2
        const V t1667 = t1666 + t1665;
        // complex block of 29, multiplier 2
        const V t1668 = t737 - t727;
        const V t1669 = t734 - t724;
        // complex block of 2
        const V t1670 = t1669 + t1668;
        // complex block of 29, multiplier 2
        const V t1671 = t1074 - t1081;
        const V t1672 = t962 - t969;
        // complex block of 2
        const V t1673 = t1672 + t1671;
        const V t1674 = t1672 - t1671;
        // complex block of 2
        const V t1675 = t1668 - t1669;
        const V t1676 = t1665 - t1666;
        // complex block of 2
        const V t1677 = t1673 - t1667;
        const V t1678 = t1673 + t1667;
        // complex block of 2
        const V t1679 = t1674 - t1670;
        const V t1680 = t1674 + t1670;
        // complex block of 29, multiplier 2
        const V t1681 = t763 + t773;
        const V t1682 = t766 + t776;
        // complex block of 2
        const V t1683 = t1682 + t1681;
        // complex block of 29, multiplier 2
        const V t1684 = t774 - t764;
        const V t1685 = t777 - t767;
        // complex block of 2
        const V t1686 = t1685 + t1684;
        // complex block of 29, multiplier 2
        const V t1687 = t949 + t956;
        const V t1688 = t1061 + t1068;
        // complex block of 2
        const V t1689 = t1687 - t1688;
        const V t1690 = t1687 + t1688;
        // complex block of 2
        const V t1691 = t1685 - t1684;
        const V t1692 = t1682 - t1681;
        // complex block of 2
        const V t1693 = t1689 + t1683;
        const V t1694 = t1689 - t1683;
        // complex block of 2
        const V t1695 = t1690 + t1686;
        const V t1696 = t1690 - t1686;
        // complex block of 29, multiplier 2
        const V t1697 = t957 - t950;
        const V t1698 = t1069 - t1062;
        // complex block of 2
        const V t1699 = t1697 - t1698;
        const V t1700 = t1697 + t1698;
        // complex block of 29, multiplier 2
        const V t1701 = t1082 + t1075;
        const V t1702 = t970 + t963;
        // complex block of 2
        const V t1703 = t1702 + t1701;
        const V t1704 = t1702 - t1701;
        // complex block of 29, multiplier 2
        const V t1705 = t712 + t716;
        const V t1706 = t717 - t713;
        // spectrum block of 2
        const V t1707 = t1663 + t1705;
        // spectrum block of 7, multiplier 4
        const V t1708 = c[2] * t1693;
        const V t1709 = c[0] * t1693;
        const V t1710 = t1707 - t1708;
        const V t1711 = t1707 - t1709;
        // spectrum block of 2
        const V t1712 = t1663 - t1705;
        // spectrum block of 7, multiplier 4
        const V t1713 = c[2] * t1694;
        const V t1714 = c[0] * t1694;
        const V t1715 = t1712 - t1713;
        const V t1716 = t1712 - t1714;
        // spectrum block of 2
        const V t1717 = t1664 + t1706;
        // spectrum block of 7, multiplier 4
        const V t1718 = c[2] * t1695;
        const V t1719 = c[0] * t1695;
        const V t1720 = t1717 - t1718;
        const V t1721 = t1717 - t1719;
        // spectrum block of 2
        const V t1722 = t1664 - t1706;
        // spectrum block of 7, multiplier 4
        const V t1723 = c[2] * t1696;
        const V t1724 = c[0] * t1696;
        const V t1725 = t1722 - t1723;
        const V t1726 = t1722 - t1724;
        // complex block of 2
        const V t1727 = t1699 + t1691;
        // spectrum block of 7, multiplier 4
        const V t1728 = c[3] * t1727;
        const V t1729 = c[4] * t1727;
        const V t1730 = c[5] * t1727;
        // complex block of 2
        const V t1731 = t1699 - t1691;
        // spectrum block of 7, multiplier 4
        const V t1732 = c[3] * t1731;
        const V t1733 = c[4] * t1731;
        const V t1734 = c[5] * t1731;
        // complex block of 2
        const V t1735 = t1700 - t1692;
        // spectrum block of 7, multiplier 4
        const V t1736 = c[3] * t1735;
        const V t1737 = c[4] * t1735;
        const V t1738 = c[5] * t1735;
        // complex block of 2
        const V t1739 = t1700 + t1692;
        // spectrum block of 7, multiplier 4
        const V t1740 = c[3] * t1739;
        const V t1741 = c[4] * t1739;
        const V t1742 = c[5] * t1739;
        // complex block of 2
        const V t1743 = t1703 + t1675;
        // spectrum block of 7, multiplier 4
        const V t1744 = c[4] * t1743;
        const V t1745 = c[5] * t1743;
        const V t1746 = c[3] * t1743;
        // complex block of 2
        const V t1747 = t1703 - t1675;
        // spectrum block of 7, multiplier 4
        const V t1748 = c[4] * t1747;
        const V t1749 = c[5] * t1747;
        const V t1750 = c[3] * t1747;
        // complex block of 2
        const V t1751 = t1704 - t1676;
        // spectrum block of 7, multiplier 4
        const V t1752 = c[4] * t1751;
        const V t1753 = c[5] * t1751;
        const V t1754 = c[3] * t1751;
        // complex block of 2
        const V t1755 = t1704 + t1676;
        // spectrum block of 7, multiplier 4
        const V t1756 = c[4] * t1755;
        const V t1757 = c[5] * t1755;
        const V t1758 = c[3] * t1755;
        // spectrum block of 7, multiplier 4
        const V t1759 = t1693 + t1677;
        const V t1760 = c[1] * t1693;
        const V t1761 = c[2] * t1677;
        const V t1762 = t1760 - t1761;
        const V t1763 = c[0] * t1677;
        const V t1764 = c[1] * t1677;
        // spectrum block of 7, multiplier 4
        const V t1765 = t1695 + t1679;
        const V t1766 = c[1] * t1695;
        const V t1767 = c[2] * t1679;
        const V t1768 = t1766 - t1767;
        const V t1769 = c[0] * t1679;
        const V t1770 = c[1] * t1679;
        // spectrum block of 7, multiplier 4
        const V t1771 = t1694 + t1678;
        const V t1772 = c[1] * t1694;
        const V t1773 = c[2] * t1678;
        const V t1774 = t1772 - t1773;
        const V t1775 = c[0] * t1678;
        const V t1776 = c[1] * t1678;
        // spectrum block of 7, multiplier 4
        const V t1777 = t1696 + t1680;
        const V t1778 = c[1] * t1696;
        const V t1779 = c[2] * t1680;
        const V t1780 = t1778 - t1779;
        const V t1781 = c[0] * t1680;
        const V t1782 = c[1] * t1680;
        // complex block of 29, multiplier 2
        const V t1783 = t1088 + t1094;
        const V t1784 = t976 + t982;
        // complex block of 2
        const V t1785 = t1784 + t1783;
        const V t1786 = t1784 - t1783;
        // complex block of 29, multiplier 2
        const V t1787 = c[31] * t1087;
        const V t1788 = t1787 - t1095;
        const V t1789 = t753 - t743;
        const V t1790 = t746 + t756;
        // complex block of 2
        const V t1791 = t1790 + t1789;
        const V t1792 = t1790 - t1789;
        // complex block of 29, multiplier 2
        const V t1793 = t754 + t744;
        const V t1794 = t747 - t757;
        // complex block of 2
        const V t1795 = t1793 - t1794;
        const V t1796 = t1794 + t1793;
        // complex block of 29, multiplier 2
        const V t1797 = c[11] * t975;
        const V t1798 = t983 - t1797;
        // complex block of 2
        const V t1799 = t1798 - t1788;
        // complex block of 2
        const V t1800 = t1799 + t1795;
        const V t1801 = t1799 - t1795;
        // complex block of 2
        const V t1802 = t1798 + t1788;
        // complex block of 2
        const V t1803 = t1802 - t1792;
        const V t1804 = t1802 + t1792;
        // complex block of 2
        const V t1805 = t1785 + t1791;
        // spectrum block of 7, multiplier 4
        const V t1806 = c[0] * t1805;
        const V t1807 = c[1] * t1805;
        const V t1808 = c[2] * t1805;
        // complex block of 2
        const V t1809 = t1785 - t1791;
        // spectrum block of 7, multiplier 4
        const V t1810 = c[0] * t1809;
        const V t1811 = c[1] * t1809;
        const V t1812 = c[2] * t1809;
        // complex block of 2
        const V t1813 = t1786 - t1796;
        // spectrum block of 7, multiplier 4
        const V t1814 = c[0] * t1813;
        const V t1815 = c[1] * t1813;
        const V t1816 = c[2] * t1813;
        // complex block of 2
        const V t1817 = t1786 + t1796;
        // spectrum block of 7, multiplier 4
        const V t1818 = c[0] * t1817;
        const V t1819 = c[1] * t1817;
        const V t1820 = c[2] * t1817;
        // complex block of 29, multiplier 2
        const V t1821 = x29i - t395;
        // spectrum block of 2
        const V t1822 = t1821 - t507;
        const V t1823 = t1821 + t507;
        // complex block of 29, multiplier 2
        const V t1824 = t178 + t188;
        const V t1825 = t175 + t185;
        // complex block of 2
        const V t1826 = t1825 + t1824;
        // complex block of 29, multiplier 2
        const V t1827 = t189 - t179;
        const V t1828 = t186 - t176;
        // complex block of 2
        const V t1829 = t1828 + t1827;
        // complex block of 29, multiplier 2
        const V t1830 = t526 - t533;
        const V t1831 = t414 - t421;
        // complex block of 2
        const V t1832 = t1831 + t1830;
        const V t1833 = t1831 - t1830;
        // complex block of 2
        const V t1834 = t1827 - t1828;
        const V t1835 = t1824 - t1825;
        // complex block of 2
        const V t1836 = t1832 - t1826;
        const V t1837 = t1832 + t1826;
        // complex block of 2
        const V t1838 = t1833 - t1829;
        const V t1839 = t1833 + t1829;
        // complex block of 29, multiplier 2
        const V t1840 = t215 + t225;
        const V t1841 = t218 + t228;
        // complex block of 2
        const V t1842 = t1841 + t1840;
        // complex block of 29, multiplier 2
        const V t1843 = t226 - t216;
        const V t1844 = t229 - t219;
        // complex block of 2
        const V t1845 = t1844 + t1843;
        // complex block of 29, multiplier 2
        const V t1846 = t401 + t408;
        const V t1847 = t513 + t520;
        // complex block of 2
        const V t1848 = t1846 - t1847;
        const V t1849 = t1846 + t1847;
        // complex block of 2
        const V t1850 = t1844 - t1843;
        const V t1851 = t1841 - t1840;
        // complex block of 2
        const V t1852 = t1848 + t1842;
        const V t1853 = t1848 - t1842;
        // complex block of 2
        const V t1854 = t1849 + t1845;
        const V t1855 = t1849 - t1845;
        // complex block of 29, multiplier 2
        const V t1856 = t409 - t402;
        const V t1857 = t521 - t514;
        // complex block of 2
        const V t1858 = t1856 - t1857;
        const V t1859 = t1856 + t1857;
        // complex block of 29, multiplier 2
        const V t1860 = t534 + t527;
        const V t1861 = t422 + t415;
        // complex block of 2
        const V t1862 = t1861 + t1860;
        const V t1863 = t1861 - t1860;
        // complex block of 29, multiplier 2
        const V t1864 = t164 + t168;
        const V t1865 = t169 - t165;
        // spectrum block of 2
        const V t1866 = t1822 + t1864;
        // spectrum block of 7, multiplier 4
        const V t1867 = c[2] * t1852;
        const V t1868 = c[0] * t1852;
        const V t1869 = t1866 - t1867;
        const V t1870 = t1866 - t1868;
        // spectrum block of 2
        const V t1871 = t1822 - t1864;
        // spectrum block of 7, multiplier 4
        const V t1872 = c[2] * t1853;
        const V t1873 = c[0] * t1853;
        const V t1874 = t1871 - t1872;
        const V t1875 = t1871 - t1873;
        // spectrum block of 2
        const V t1876 = t1823 + t1865;
        // spectrum block of 7, multiplier 4
        const V t1877 = c[2] * t1854;
        const V t1878 = c[0] * t1854;
        const V t1879 = t1876 - t1877;
        const V t1880 = t1876 - t1878;
        // spectrum block of 2
        const V t1881 = t1823 - t1865;
        // spectrum block of 7, multiplier 4
        const V t1882 = c[2] * t1855;
        const V t1883 = c[0] * t1855;
        const V t1884 = t1881 - t1882;
        const V t1885 = t1881 - t1883;
        // complex block of 2
        const V t1886 = t1858 + t1850;
        // spectrum block of 7, multiplier 4
        const V t1887 = c[3] * t1886;
        const V t1888 = c[4] * t1886;
        const V t1889 = c[5] * t1886;
        // complex block of 2
        const V t1890 = t1858 - t1850;
        // spectrum block of 7, multiplier 4
        const V t1891 = c[3] * t1890;
        const V t1892 = c[4] * t1890;
        const V t1893 = c[5] * t1890;
        // complex block of 2
        const V t1894 = t1859 - t1851;
        // spectrum block of 7, multiplier 4
        const V t1895 = c[3] * t1894;
        const V t1896 = c[4] * t1894;
        const V t1897 = c[5] * t1894;
        // complex block of 2
        const V t1898 = t1859 + t1851;
        // spectrum block of 7, multiplier 4
        const V t1899 = c[3] * t1898;
        const V t1900 = c[4] * t1898;
        const V t1901 = c[5] * t1898;
        // complex block of 2
        const V t1902 = t1862 + t1834;
        // spectrum block of 7, multiplier 4
        const V t1903 = c[4] * t1902;
        const V t1904 = c[5] * t1902;
        const V t1905 = c[3] * t1902;
        // complex block of 2
        const V t1906 = t1862 - t1834;
        // spectrum block of 7, multiplier 4
        const V t1907 = c[4] * t1906;
        const V t1908 = c[5] * t1906;
        const V t1909 = c[3] * t1906;
        // complex block of 2
        const V t1910 = t1863 - t1835;
        // spectrum block of 7, multiplier 4
        const V t1911 = c[4] * t1910;
        const V t1912 = c[5] * t1910;
        const V t1913 = c[3] * t1910;
        // complex block of 2
        const V t1914 = t1863 + t1835;
        // spectrum block of 7, multiplier 4
        const V t1915 = c[4] * t1914;
        const V t1916 = c[5] * t1914;
        const V t1917 = c[3] * t1914;
        // spectrum block of 7, multiplier 4
        const V t1918 = t1852 + t1836;
        const V t1919 = c[1] * t1852;
        const V t1920 = c[2] * t1836;
        const V t1921 = t1919 - t1920;
        const V t1922 = c[0] * t1836;
        const V t1923 = c[1] * t1836;
        // spectrum block of 7, multiplier 4
        const V t1924 = t1854 + t1838;
        const V t1925 = c[1] * t1854;
        const V t1926 = c[2] * t1838;
        const V t1927 = t1925 - t1926;
        const V t1928 = c[0] * t1838;
        const V t1929 = c[1] * t1838;
        // spectrum block of 7, multiplier 4
        const V t1930 = t1853 + t1837;
        const V t1931 = c[1] * t1853;
        const V t1932 = c[2] * t1837;
        const V t1933 = t1931 - t1932;
        const V t1934 = c[0] * t1837;
        const V t1935 = c[1] * t1837;
        // spectrum block of 7, multiplier 4
        const V t1936 = t1855 + t1839;
        const V t1937 = c[1] * t1855;
        const V t1938 = c[2] * t1839;
        const V t1939 = t1937 - t1938;
        const V t1940 = c[0] * t1839;
        const V t1941 = c[1] * t1839;
        // complex block of 29, multiplier 2
        const V t1942 = t540 + t546;
        const V t1943 = t428 + t434;
        // complex block of 2
        const V t1944 = t1943 + t1942;
        const V t1945 = t1943 - t1942;
        // complex block of 29, multiplier 2
        const V t1946 = c[31] * t539;
        const V t1947 = t1946 - t547;
        const V t1948 = t205 - t195;
        const V t1949 = t198 + t208;
        // complex block of 2
        const V t1950 = t1949 + t1948;
        const V t1951 = t1949 - t1948;
        // complex block of 29, multiplier 2
        const V t1952 = t206 + t196;
        const V t1953 = t199 - t209;
        // complex block of 2
        const V t1954 = t1952 - t1953;
        const V t1955 = t1953 + t1952;
        // complex block of 29, multiplier 2
        const V t1956 = c[11] * t427;
        const V t1957 = t435 - t1956;
        // complex block of 2
        const V t1958 = t1957 - t1947;
        // complex block of 2
        const V t1959 = t1958 + t1954;
        const V t1960 = t1958 - t1954;
        // complex block of 2
        const V t1961 = t1957 + t1947;
        // complex block of 2
        const V t1962 = t1961 - t1951;
        const V t1963 = t1961 + t1951;
        // complex block of 2
        const V t1964 = t1944 + t1950;
        // spectrum block of 7, multiplier 4
        const V t1965 = c[0] * t1964;
        const V t1966 = c[1] * t1964;
        const V t1967 = c[2] * t1964;
        // complex block of 2
        const V t1968 = t1944 - t1950;
        // spectrum block of 7, multiplier 4
        const V t1969 = c[0] * t1968;
        const V t1970 = c[1] * t1968;
        const V t1971 = c[2] * t1968;
        // complex block of 2
        const V t1972 = t1945 - t1955;
        // spectrum block of 7, multiplier 4
        const V t1973 = c[0] * t1972;
        const V t1974 = c[1] * t1972;
        const V t1975 = c[2] * t1972;
        // complex block of 2
        const V t1976 = t1945 + t1955;
        // spectrum block of 7, multiplier 4
        const V t1977 = c[0] * t1976;
        const V t1978 = c[1] * t1976;
        const V t1979 = c[2] * t1976;
        // spectrum block of 7, multiplier 4
        const V t1980 = t1759 + t1805;
        const V t1981 = t1980 + t1707;
        // spectrum block of 7, multiplier 4
        const V t1982 = t1918 + t1964;
        const V t1983 = t1982 + t1866;
        // complex block of 2
        const V t1984 = t1981 + t1983;
        io.im(2, t1984);
        const V t1985 = t1981 - t1983;
        io.im(31, t1985);
        // spectrum block of 7, multiplier 4
        const V t1986 = t1762 - t1806;
        const V t1987 = t1986 + t1707;
        const V t1988 = t1728 + t1744;
        const V t1989 = c[5] * t1800;
        const V t1990 = t1988 + t1989;
        // spectrum block of 7, multiplier 4
        const V t1991 = t1921 - t1965;
        const V t1992 = t1991 + t1866;
        const V t1993 = t1887 + t1903;
        const V t1994 = c[5] * t1959;
        const V t1995 = t1993 + t1994;
        // spectrum block of 7, multiplier 4
        const V t1996 = t1987 - t1990;
        // spectrum block of 7, multiplier 4
        const V t1997 = t1992 - t1995;
        // complex block of 2
        const V t1998 = t1996 + t1997;
        io.im(46, t1998);
        const V t1999 = t1996 - t1997;
        io.im(17, t1999);
        // spectrum block of 7, multiplier 4
        const V t2000 = t1987 + t1990;
        // spectrum block of 7, multiplier 4
        const V t2001 = t1992 + t1995;
        // complex block of 2
        const V t2002 = t2000 + t2001;
        io.im(48, t2002);
        const V t2003 = t2000 - t2001;
        io.im(19, t2003);
        // spectrum block of 7, multiplier 4
        const V t2004 = t1710 - t1763;
        const V t2005 = t2004 + t1807;
        const V t2006 = t1729 - t1745;
        const V t2007 = c[3] * t1800;
        const V t2008 = t2006 - t2007;
        // spectrum block of 7, multiplier 4
        const V t2009 = t1869 - t1922;
        const V t2010 = t2009 + t1966;
        const V t2011 = t1888 - t1904;
        const V t2012 = c[3] * t1959;
        const V t2013 = t2011 - t2012;
        // spectrum block of 7, multiplier 4
        const V t2014 = t2005 - t2008;
        // spectrum block of 7, multiplier 4
        const V t2015 = t2010 - t2013;
        // complex block of 2
        const V t2016 = t2014 + t2015;
        io.im(14, t2016);
        const V t2017 = t2014 - t2015;
        io.im(43, t2017);
        // spectrum block of 7, multiplier 4
        const V t2018 = t2005 + t2008;
        // spectrum block of 7, multiplier 4
        const V t2019 = t2010 + t2013;
        // complex block of 2
        const V t2020 = t2018 + t2019;
        io.im(50, t2020);
        const V t2021 = t2018 - t2019;
        io.im(21, t2021);
        // spectrum block of 7, multiplier 4
        const V t2022 = t1711 + t1764;
        const V t2023 = t2022 - t1808;
        const V t2024 = t1730 - t1746;
        const V t2025 = c[4] * t1800;
        const V t2026 = t2024 + t2025;
        // spectrum block of 7, multiplier 4
        const V t2027 = t1870 + t1923;
        const V t2028 = t2027 - t1967;
        const V t2029 = t1889 - t1905;
        const V t2030 = c[4] * t1959;
        const V t2031 = t2029 + t2030;
        // spectrum block of 7, multiplier 4
        const V t2032 = t2023 - t2026;
        // spectrum block of 7, multiplier 4
        const V t2033 = t2028 - t2031;
        // complex block of 2
        const V t2034 = t2032 + t2033;
        io.im(32, t2034);
        const V t2035 = t2032 - t2033;
        io.im(3, t2035);
        // spectrum block of 7, multiplier 4
        const V t2036 = t2023 + t2026;
        // spectrum block of 7, multiplier 4
        const V t2037 = t2028 + t2031;
        // complex block of 2
        const V t2038 = t2036 + t2037;
        io.im(40, t2038);
        const V t2039 = t2036 - t2037;
        io.im(11, t2039);
        // spectrum block of 7, multiplier 4
        const V t2040 = t1765 + t1813;
        const V t2041 = t2040 + t1717;
        // spectrum block of 7, multiplier 4
        const V t2042 = t1924 + t1972;
        const V t2043 = t2042 + t1876;
        // complex block of 2
        const V t2044 = t2041 + t2043;
        io.im(34, t2044);
        const V t2045 = t2041 - t2043;
        io.im(5, t2045);
        // spectrum block of 7, multiplier 4
        const V t2046 = t1768 - t1814;
        const V t2047 = t2046 + t1717;
        const V t2048 = t1736 + t1752;
        const V t2049 = c[5] * t1803;
        const V t2050 = t2048 + t2049;
        // spectrum block of 7, multiplier 4
        const V t2051 = t1927 - t1973;
        const V t2052 = t2051 + t1876;
        const V t2053 = t1895 + t1911;
        const V t2054 = c[5] * t1962;
        const V t2055 = t2053 + t2054;
        // spectrum block of 7, multiplier 4
        const V t2056 = t2047 - t2050;
        // spectrum block of 7, multiplier 4
        const V t2057 = t2052 - t2055;
        // complex block of 2
        const V t2058 = t2056 + t2057;
        io.im(28, t2058);
        const V t2059 = t2056 - t2057;
        io.im(57, t2059);
        // spectrum block of 7, multiplier 4
        const V t2060 = t2047 + t2050;
        // spectrum block of 7, multiplier 4
        const V t2061 = t2052 + t2055;
        // complex block of 2
        const V t2062 = t2060 + t2061;
        io.im(4, t2062);
        const V t2063 = t2060 - t2061;
        io.im(33, t2063);
        // spectrum block of 7, multiplier 4
        const V t2064 = t1720 - t1769;
        const V t2065 = t2064 + t1815;
        const V t2066 = t1737 - t1753;
        const V t2067 = c[3] * t1803;
        const V t2068 = t2066 - t2067;
        // spectrum block of 7, multiplier 4
        const V t2069 = t1879 - t1928;
        const V t2070 = t2069 + t1974;
        const V t2071 = t1896 - t1912;
        const V t2072 = c[3] * t1962;
        const V t2073 = t2071 - t2072;
        // spectrum block of 7, multiplier 4
        const V t2074 = t2065 - t2068;
        // spectrum block of 7, multiplier 4
        const V t2075 = t2070 - t2073;
        // complex block of 2
        const V t2076 = t2074 + t2075;
        io.im(6, t2076);
        const V t2077 = t2074 - t2075;
        io.im(35, t2077);
        // spectrum block of 7, multiplier 4
        const V t2078 = t2065 + t2068;
        // spectrum block of 7, multiplier 4
        const V t2079 = t2070 + t2073;
        // complex block of 2
        const V t2080 = t2078 + t2079;
        io.im(38, t2080);
        const V t2081 = t2078 - t2079;
        io.im(9, t2081);
        // spectrum block of 7, multiplier 4
        const V t2082 = t1721 + t1770;
        const V t2083 = t2082 - t1816;
        const V t2084 = t1738 - t1754;
        const V t2085 = c[4] * t1803;
        const V t2086 = t2084 + t2085;
        // spectrum block of 7, multiplier 4
        const V t2087 = t1880 + t1929;
        const V t2088 = t2087 - t1975;
        const V t2089 = t1897 - t1913;
        const V t2090 = c[4] * t1962;
        const V t2091 = t2089 + t2090;
        // spectrum block of 7, multiplier 4
        const V t2092 = t2083 - t2086;
        // spectrum block of 7, multiplier 4
        const V t2093 = t2088 - t2091;
        // complex block of 2
        const V t2094 = t2092 + t2093;
        io.im(22, t2094);
        const V t2095 = t2092 - t2093;
        io.im(51, t2095);
        // spectrum block of 7, multiplier 4
        const V t2096 = t2083 + t2086;
        // spectrum block of 7, multiplier 4
        const V t2097 = t2088 + t2091;
        // complex block of 2
        const V t2098 = t2096 + t2097;
        io.im(42, t2098);
        const V t2099 = t2096 - t2097;
        io.im(13, t2099);
        // spectrum block of 7, multiplier 4
        const V t2100 = t1771 + t1809;
        const V t2101 = t2100 + t1712;
        // spectrum block of 7, multiplier 4
        const V t2102 = t1930 + t1968;
        const V t2103 = t2102 + t1871;
        // complex block of 2
        const V t2104 = t2101 + t2103;
        io.im(56, t2104);
        const V t2105 = t2101 - t2103;
        io.im(27, t2105);
        // spectrum block of 7, multiplier 4
        const V t2106 = t1774 - t1810;
        const V t2107 = t2106 + t1712;
        const V t2108 = t1732 + t1748;
        const V t2109 = c[5] * t1801;
        const V t2110 = t2108 + t2109;
        // spectrum block of 7, multiplier 4
        const V t2111 = t1933 - t1969;
        const V t2112 = t2111 + t1871;
        const V t2113 = t1891 + t1907;
        const V t2114 = c[5] * t1960;
        const V t2115 = t2113 + t2114;
        // spectrum block of 7, multiplier 4
        const V t2116 = t2107 - t2110;
        // spectrum block of 7, multiplier 4
        const V t2117 = t2112 - t2115;
        // complex block of 2
        const V t2118 = t2116 + t2117;
        io.im(12, t2118);
        const V t2119 = t2116 - t2117;
        io.im(41, t2119);
        // spectrum block of 7, multiplier 4
        const V t2120 = t2107 + t2110;
        // spectrum block of 7, multiplier 4
        const V t2121 = t2112 + t2115;
        // complex block of 2
        const V t2122 = t2120 + t2121;
        io.im(10, t2122);
        const V t2123 = t2120 - t2121;
        io.im(39, t2123);
        // spectrum block of 7, multiplier 4
        const V t2124 = t1715 - t1775;
        const V t2125 = t2124 + t1811;
        const V t2126 = t1733 - t1749;
        const V t2127 = c[3] * t1801;
        const V t2128 = t2126 - t2127;
        // spectrum block of 7, multiplier 4
        const V t2129 = t1874 - t1934;
        const V t2130 = t2129 + t1970;
        const V t2131 = t1892 - t1908;
        const V t2132 = c[3] * t1960;
        const V t2133 = t2131 - t2132;
        // spectrum block of 7, multiplier 4
        const V t2134 = t2125 - t2128;
        // spectrum block of 7, multiplier 4
        const V t2135 = t2130 - t2133;
        // complex block of 2
        const V t2136 = t2134 + t2135;
        io.im(44, t2136);
        const V t2137 = t2134 - t2135;
        io.im(15, t2137);
        // spectrum block of 7, multiplier 4
        const V t2138 = t2125 + t2128;
        // spectrum block of 7, multiplier 4
        const V t2139 = t2130 + t2133;
        // complex block of 2
        const V t2140 = t2138 + t2139;
        io.im(8, t2140);
        const V t2141 = t2138 - t2139;
        io.im(37, t2141);
        // spectrum block of 7, multiplier 4
        const V t2142 = t1716 + t1776;
        const V t2143 = t2142 - t1812;
        const V t2144 = t1734 - t1750;
        const V t2145 = c[4] * t1801;
        const V t2146 = t2144 + t2145;
        // spectrum block of 7, multiplier 4
        const V t2147 = t1875 + t1935;
        const V t2148 = t2147 - t1971;
        const V t2149 = t1893 - t1909;
        const V t2150 = c[4] * t1960;
        const V t2151 = t2149 + t2150;
        // spectrum block of 7, multiplier 4
        const V t2152 = t2143 - t2146;
        // spectrum block of 7, multiplier 4
        const V t2153 = t2148 - t2151;
        // complex block of 2
        const V t2154 = t2152 + t2153;
        io.im(26, t2154);
        const V t2155 = t2152 - t2153;
        io.im(55, t2155);
        // spectrum block of 7, multiplier 4
        const V t2156 = t2143 + t2146;
        // spectrum block of 7, multiplier 4
        const V t2157 = t2148 + t2151;
        // complex block of 2
        const V t2158 = t2156 + t2157;
        io.im(18, t2158);
        const V t2159 = t2156 - t2157;
        io.im(47, t2159);
        // spectrum block of 7, multiplier 4
        const V t2160 = t1777 + t1817;
        const V t2161 = t2160 + t1722;
        // spectrum block of 7, multiplier 4
        const V t2162 = t1936 + t1976;
        const V t2163 = t2162 + t1881;
        // complex block of 2
        const V t2164 = t2161 + t2163;
        io.im(24, t2164);
        const V t2165 = t2161 - t2163;
        io.im(53, t2165);
        // spectrum block of 7, multiplier 4
        const V t2166 = t1780 - t1818;
        const V t2167 = t2166 + t1722;
        const V t2168 = t1740 + t1756;
        const V t2169 = c[5] * t1804;
        const V t2170 = t2168 + t2169;
        // spectrum block of 7, multiplier 4
        const V t2171 = t1939 - t1977;
        const V t2172 = t2171 + t1881;
        const V t2173 = t1899 + t1915;
        const V t2174 = c[5] * t1963;
        const V t2175 = t2173 + t2174;
        // spectrum block of 7, multiplier 4
        const V t2176 = t2167 - t2170;
        // spectrum block of 7, multiplier 4
        const V t2177 = t2172 - t2175;
        // complex block of 2
        const V t2178 = t2176 + t2177;
        io.im(30, t2178);
        const V t2179 = t2176 - t2177;
        io.im(1, t2179);
        // spectrum block of 7, multiplier 4
        const V t2180 = t2167 + t2170;
        // spectrum block of 7, multiplier 4
        const V t2181 = t2172 + t2175;
        // complex block of 2
        const V t2182 = t2180 + t2181;
        io.im(54, t2182);
        const V t2183 = t2180 - t2181;
        io.im(25, t2183);
        // spectrum block of 7, multiplier 4
        const V t2184 = t1725 - t1781;
        const V t2185 = t2184 + t1819;
        const V t2186 = t1741 - t1757;
        const V t2187 = c[3] * t1804;
        const V t2188 = t2186 - t2187;
        // spectrum block of 7, multiplier 4
        const V t2189 = t1884 - t1940;
        const V t2190 = t2189 + t1978;
        const V t2191 = t1900 - t1916;
        const V t2192 = c[3] * t1963;
        const V t2193 = t2191 - t2192;
        // spectrum block of 7, multiplier 4
        const V t2194 = t2185 - t2188;
        // spectrum block of 7, multiplier 4
        const V t2195 = t2190 - t2193;
        // complex block of 2
        const V t2196 = t2194 + t2195;
        io.im(52, t2196);
        const V t2197 = t2194 - t2195;
        io.im(23, t2197);
        // spectrum block of 7, multiplier 4
        const V t2198 = t2185 + t2188;
        // spectrum block of 7, multiplier 4
        const V t2199 = t2190 + t2193;
        // complex block of 2
        const V t2200 = t2198 + t2199;
        io.im(20, t2200);
        const V t2201 = t2198 - t2199;
        io.im(49, t2201);
        // spectrum block of 7, multiplier 4
        const V t2202 = t1726 + t1782;
        const V t2203 = t2202 - t1820;
        const V t2204 = t1742 - t1758;
        const V t2205 = c[4] * t1804;
        const V t2206 = t2204 + t2205;
        // spectrum block of 7, multiplier 4
        const V t2207 = t1885 + t1941;
        const V t2208 = t2207 - t1979;
        const V t2209 = t1901 - t1917;
        const V t2210 = c[4] * t1963;
        const V t2211 = t2209 + t2210;
        // spectrum block of 7, multiplier 4
        const V t2212 = t2203 - t2206;
        // spectrum block of 7, multiplier 4
        const V t2213 = t2208 - t2211;
        // complex block of 2
        const V t2214 = t2212 + t2213;
        io.im(36, t2214);
        const V t2215 = t2212 - t2213;
        io.im(7, t2215);
        // spectrum block of 7, multiplier 4
        const V t2216 = t2203 + t2206;
        // spectrum block of 7, multiplier 4
        const V t2217 = t2208 + t2211;
        // complex block of 2
        const V t2218 = t2216 + t2217;
        io.im(16, t2218);
        const V t2219 = t2216 - t2217;
        io.im(45, t2219);
    }
};

}  // namespace zulg
