// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 34.
// Inverse DFT to 34 real points, prime-factor 17, 2.
// 133 additions, 133 subtractions, 136 multiplications (170 with `scale`); 21 constants; 64 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<34> {
    static constexpr int steps = 436;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.31717619283272513,  // c[3]: -P[4] of 17
        0.40623178445333147,  // c[4]: -Q[4] of 17
        0.347088927763506,  // c[5]: P[2] of 17
        0.3809911760447736,  // c[6]: Q[2] of 17
        0.5139020806887744,  // c[7]: P[6] of 17
        0.039110758925753275,  // c[8]: -Q[6] of 17
        1.4142135623730951,  // c[9]: cos 2 pi 1/8 times 2
        0.506476062234015,  // c[10]: -Q[1] of 17
        0.09543059459065593,  // c[11]: -P[1] of 17
        0.3101351696520051,  // c[12]: -Q[7] of 17
        0.4116323317536197,  // c[13]: -P[7] of 17
        0.4154752217498508,  // c[14]: Q[3] of 17
        0.3049677689722511,  // c[15]: -P[3] of 17
        0.27255963351038787,  // c[16]: -Q[5] of 17
        0.4374199883186445,  // c[17]: -P[5] of 17
        0.0625,  // c[18]: 1/16
        0.2576941016011038,  // c[19]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x13r = io.re(13);
        const V t1 = two * x13r;
        // real block of 2
        const V t2 = t0 + t1;
        const V t3 = t0 - t1;
        // doubled bins
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x5r = io.re(5);
        const V t5 = two * x5r;
        const V x7r = io.re(7);
        const V t6 = two * x7r;
        const V x11r = io.re(11);
        const V t7 = two * x11r;
        // real block of 2
        const V t8 = t7 + t6;
        const V t9 = t7 - t6;
        // real block of 2
        const V t10 = t4 - t5;
        // skew block of 4
        const V t11 = t9 - t10;
        const V t12 = t9 + t10;
        // real block of 2
        const V t13 = t4 + t5;
        // doubled bins
        const V x9r = io.re(9);
        const V t14 = two * x9r;
        const V x15r = io.re(15);
        const V t15 = two * x15r;
        // real block of 2
        const V t16 = t15 + t14;
        const V t17 = t15 - t14;
        // real block of 2
        const V t18 = t16 + t2;
        // real block of 2
        const V t19 = t8 + t13;
        // real block of 2
        const V t20 = t18 + t19;
        const V t21 = t18 - t19;
        // spectrum block of 17, multiplier 2
        const V t22 = c[18] * t20;
        const V t23 = c[19] * t21;
        // real block of 2
        const V t24 = t16 - t2;
        // spectrum block of 17, multiplier 2
        const V t25 = c[3] * t24;
        const V t26 = c[4] * t24;
        // real block of 2
        const V t27 = t8 - t13;
        // spectrum block of 17, multiplier 2
        const V t28 = c[4] * t27;
        const V t29 = c[3] * t27;
        // skew block of 4
        const V t30 = c[2] * t11;
        const V t31 = t17 + t30;
        const V t32 = t17 - t30;
        // spectrum block of 17, multiplier 2
        const V t33 = c[5] * t31;
        const V t34 = c[6] * t31;
        const V t35 = c[7] * t32;
        const V t36 = c[8] * t32;
        // skew block of 4
        const V t37 = c[2] * t12;
        const V t38 = t37 - t3;
        const V t39 = t3 + t37;
        // spectrum block of 17, multiplier 2
        const V t40 = c[6] * t39;
        const V t41 = c[5] * t39;
        const V t42 = c[8] * t38;
        const V t43 = c[7] * t38;
        // skew block of 8
        const V x1i = io.im(1);
        const V t44 = c[9] * x1i;
        const V x13i = io.im(13);
        const V t45 = c[9] * x13i;
        const V t46 = t44 - t45;
        const V t47 = t45 + t44;
        // doubled bins
        const V x3i = io.im(3);
        const V t48 = two * x3i;
        const V x5i = io.im(5);
        const V t49 = two * x5i;
        // skew block of 8
        const V t50 = c[0] * t49;
        const V t51 = c[1] * t48;
        const V t52 = t51 - t50;
        const V t53 = c[0] * t48;
        const V t54 = c[1] * t49;
        const V t55 = t54 + t53;
        // doubled bins
        const V x7i = io.im(7);
        const V t56 = two * x7i;
        const V x11i = io.im(11);
        const V t57 = two * x11i;
        // skew block of 8
        const V t58 = c[1] * t56;
        const V t59 = c[0] * t57;
        const V t60 = t58 - t59;
        const V t61 = c[1] * t57;
        const V t62 = c[0] * t56;
        const V t63 = t62 + t61;
        // doubled bins
        const V x9i = io.im(9);
        const V t64 = two * x9i;
        const V x15i = io.im(15);
        const V t65 = two * x15i;
        // complex block of 2
        const V t66 = t46 - t65;
        // complex block of 2
        const V t67 = t60 + t52;
        // complex block of 2
        const V t68 = t66 + t67;
        const V t69 = t66 - t67;
        // spectrum block of 17, multiplier 2
        const V t70 = c[10] * t68;
        const V t71 = c[11] * t68;
        const V t72 = c[12] * t69;
        const V t73 = c[13] * t69;
        // complex block of 2
        const V t74 = t64 + t47;
        // complex block of 2
        const V t75 = t63 - t55;
        // complex block of 2
        const V t76 = t75 - t74;
        const V t77 = t74 + t75;
        // spectrum block of 17, multiplier 2
        const V t78 = c[11] * t76;
        const V t79 = c[10] * t76;
        const V t80 = c[13] * t77;
        const V t81 = c[12] * t77;
        // complex block of 2
        const V t82 = t65 + t46;
        // complex block of 2
        const V t83 = t63 + t55;
        // complex block of 2
        const V t84 = t83 - t82;
        const V t85 = t82 + t83;
        // spectrum block of 17, multiplier 2
        const V t86 = c[14] * t85;
        const V t87 = c[15] * t85;
        const V t88 = c[16] * t84;
        const V t89 = c[17] * t84;
        // complex block of 2
        const V t90 = t47 - t64;
        // complex block of 2
        const V t91 = t60 - t52;
        // complex block of 2
        const V t92 = t90 - t91;
        const V t93 = t90 + t91;
        // spectrum block of 17, multiplier 2
        const V t94 = c[15] * t93;
        const V t95 = c[14] * t93;
        const V t96 = c[17] * t92;
        const V t97 = c[16] * t92;
        // doubled bins
        const V x2r = io.re(2);
        const V t98 = two * x2r;
        const V x8r = io.re(8);
        const V t99 = two * x8r;
        // real block of 2
        const V t100 = t98 + t99;
        const V t101 = t98 - t99;
        // doubled bins
        const V x4r = io.re(4);
        const V t102 = two * x4r;
        const V x16r = io.re(16);
        const V t103 = two * x16r;
        // real block of 2
        const V t104 = t103 + t102;
        const V t105 = t103 - t102;
        // doubled bins
        const V x6r = io.re(6);
        const V t106 = two * x6r;
        const V x10r = io.re(10);
        const V t107 = two * x10r;
        const V x12r = io.re(12);
        const V t108 = two * x12r;
        const V x14r = io.re(14);
        const V t109 = two * x14r;
        // real block of 2
        const V t110 = t106 + t107;
        const V t111 = t106 - t107;
        // real block of 2
        const V t112 = t109 - t108;
        // skew block of 4
        const V t113 = t111 - t112;
        const V t114 = t111 + t112;
        // real block of 2
        const V t115 = t109 + t108;
        // real block of 2
        const V t116 = t100 + t104;
        // real block of 2
        const V t117 = t110 + t115;
        // real block of 2
        const V t118 = t116 + t117;
        const V t119 = t116 - t117;
        // spectrum block of 17, multiplier 2
        const V t120 = c[18] * t118;
        const V t121 = c[19] * t119;
        // real block of 2
        const V t122 = t100 - t104;
        // spectrum block of 17, multiplier 2
        const V t123 = c[3] * t122;
        const V t124 = c[4] * t122;
        // real block of 2
        const V t125 = t110 - t115;
        // spectrum block of 17, multiplier 2
        const V t126 = c[4] * t125;
        const V t127 = c[3] * t125;
        // skew block of 4
        const V t128 = c[2] * t113;
        const V t129 = t101 + t128;
        const V t130 = t101 - t128;
        // spectrum block of 17, multiplier 2
        const V t131 = c[5] * t129;
        const V t132 = c[6] * t129;
        const V t133 = c[7] * t130;
        const V t134 = c[8] * t130;
        // skew block of 4
        const V t135 = c[2] * t114;
        const V t136 = t135 - t105;
        const V t137 = t105 + t135;
        // spectrum block of 17, multiplier 2
        const V t138 = c[6] * t137;
        const V t139 = c[5] * t137;
        const V t140 = c[8] * t136;
        const V t141 = c[7] * t136;
        // doubled bins
        const V x2i = io.im(2);
        const V t142 = two * x2i;
        // skew block of 8
        const V x4i = io.im(4);
        const V t143 = c[9] * x4i;
        const V x16i = io.im(16);
        const V t144 = c[9] * x16i;
        const V t145 = t143 - t144;
        const V t146 = t143 + t144;
        // doubled bins
        const V x6i = io.im(6);
        const V t147 = two * x6i;
        const V x10i = io.im(10);
        const V t148 = two * x10i;
        // skew block of 8
        const V t149 = c[1] * t148;
        const V t150 = c[0] * t147;
        const V t151 = t150 - t149;
        const V t152 = c[1] * t147;
        const V t153 = c[0] * t148;
        const V t154 = t153 + t152;
        // doubled bins
        const V x8i = io.im(8);
        const V t155 = two * x8i;
        const V x12i = io.im(12);
        const V t156 = two * x12i;
        const V x14i = io.im(14);
        const V t157 = two * x14i;
        // skew block of 8
        const V t158 = c[0] * t156;
        const V t159 = c[1] * t157;
        const V t160 = t158 - t159;
        const V t161 = c[0] * t157;
        const V t162 = c[1] * t156;
        const V t163 = t162 + t161;
        // complex block of 2
        const V t164 = t142 + t145;
        // complex block of 2
        const V t165 = t151 + t160;
        // complex block of 2
        const V t166 = t164 + t165;
        const V t167 = t164 - t165;
        // spectrum block of 17, multiplier 2
        const V t168 = c[10] * t166;
        const V t169 = c[11] * t166;
        const V t170 = c[12] * t167;
        const V t171 = c[13] * t167;
        // complex block of 2
        const V t172 = t155 + t146;
        // complex block of 2
        const V t173 = t163 - t154;
        // complex block of 2
        const V t174 = t172 + t173;
        const V t175 = t172 - t173;
        // spectrum block of 17, multiplier 2
        const V t176 = c[11] * t174;
        const V t177 = c[10] * t174;
        const V t178 = c[13] * t175;
        const V t179 = c[12] * t175;
        // complex block of 2
        const V t180 = t142 - t145;
        // complex block of 2
        const V t181 = t154 + t163;
        // complex block of 2
        const V t182 = t180 - t181;
        const V t183 = t180 + t181;
        // spectrum block of 17, multiplier 2
        const V t184 = c[14] * t183;
        const V t185 = c[15] * t183;
        const V t186 = c[16] * t182;
        const V t187 = c[17] * t182;
        // complex block of 2
        const V t188 = t155 - t146;
        // complex block of 2
        const V t189 = t151 - t160;
        // complex block of 2
        const V t190 = t188 - t189;
        const V t191 = t188 + t189;
        // spectrum block of 17, multiplier 2
        const V t192 = c[15] * t191;
        const V t193 = c[14] * t191;
        const V t194 = c[17] * t190;
        const V t195 = c[16] * t190;
        const V x0r = io.re(0);
        const V t196 = x0r - t120;
        // spectrum block of 2
        const V t197 = t196 + t121;
        const V t198 = t196 - t121;
        // spectrum block of 17, multiplier 2
        const V t199 = t123 + t126;
        const V t200 = t127 - t124;
        // spectrum block of 2
        const V t201 = t197 - t199;
        const V t202 = t197 + t199;
        // spectrum block of 2
        const V t203 = t198 - t200;
        const V t204 = t198 + t200;
        // spectrum block of 17, multiplier 2
        const V t205 = t176 - t168;
        const V t206 = t170 + t178;
        // complex block of 2
        const V t207 = t205 - t206;
        const V t208 = t205 + t206;
        // spectrum block of 17, multiplier 2
        const V t209 = t177 + t169;
        const V t210 = t179 - t171;
        // complex block of 2
        const V t211 = t209 + t210;
        const V t212 = t210 - t209;
        // spectrum block of 17, multiplier 2
        const V t213 = t184 - t192;
        const V t214 = t194 - t186;
        // complex block of 2
        const V t215 = t214 + t213;
        const V t216 = t214 - t213;
        // spectrum block of 17, multiplier 2
        const V t217 = t193 + t185;
        const V t218 = t195 + t187;
        // complex block of 2
        const V t219 = t217 - t218;
        const V t220 = t218 + t217;
        // complex block of 2
        const V t221 = t219 - t211;
        const V t222 = t207 + t215;
        const V t223 = t211 + t219;
        const V t224 = t207 - t215;
        // spectrum block of 16
        const V t225 = t224 - t223;
        const V t226 = t223 + t224;
        // complex block of 2
        const V t227 = t212 + t216;
        // spectrum block of 16
        const V t228 = c[1] * t227;
        const V t229 = c[0] * t227;
        // complex block of 2
        const V t230 = t208 + t220;
        // spectrum block of 16
        const V t231 = c[0] * t230;
        const V t232 = c[1] * t230;
        // complex block of 2
        const V t233 = t212 - t216;
        // spectrum block of 16
        const V t234 = c[0] * t233;
        const V t235 = c[1] * t233;
        // complex block of 2
        const V t236 = t208 - t220;
        // spectrum block of 16
        const V t237 = c[1] * t236;
        const V t238 = c[0] * t236;
        // spectrum block of 17, multiplier 2
        const V t239 = t131 + t138;
        const V t240 = t133 - t140;
        // mirrored skew block of 4
        const V t241 = t239 - t240;
        // spectrum block of 17, multiplier 2
        const V t242 = t132 - t139;
        const V t243 = t141 + t134;
        // mirrored skew block of 4
        const V t244 = t242 - t243;
        const V t245 = c[2] * t241;
        const V t246 = c[2] * t244;
        const V t247 = t245 - t246;
        const V t248 = t245 + t246;
        const V t249 = t239 + t240;
        const V t250 = t242 + t243;
        // spectrum block of 17, multiplier 2
        const V x17r = io.re(17);
        const V t251 = x17r - t22;
        // spectrum block of 2
        const V t252 = t251 + t23;
        const V t253 = t251 - t23;
        // spectrum block of 17, multiplier 2
        const V t254 = t25 + t28;
        const V t255 = t29 - t26;
        // spectrum block of 2
        const V t256 = t252 - t254;
        const V t257 = t252 + t254;
        // spectrum block of 2
        const V t258 = t253 - t255;
        const V t259 = t253 + t255;
        // spectrum block of 17, multiplier 2
        const V t260 = t78 - t70;
        const V t261 = t80 - t72;
        // complex block of 2
        const V t262 = t260 + t261;
        const V t263 = t260 - t261;
        // spectrum block of 17, multiplier 2
        const V t264 = t79 + t71;
        const V t265 = t81 + t73;
        // complex block of 2
        const V t266 = t265 - t264;
        const V t267 = t264 + t265;
        // spectrum block of 17, multiplier 2
        const V t268 = t86 + t94;
        const V t269 = t96 - t88;
        // complex block of 2
        const V t270 = t269 - t268;
        const V t271 = t269 + t268;
        // spectrum block of 17, multiplier 2
        const V t272 = t87 - t95;
        const V t273 = t97 + t89;
        // complex block of 2
        const V t274 = t273 + t272;
        const V t275 = t272 - t273;
        // complex block of 2
        const V t276 = t266 - t274;
        const V t277 = t262 + t270;
        const V t278 = t266 + t274;
        const V t279 = t262 - t270;
        // spectrum block of 16
        const V t280 = t279 + t278;
        const V t281 = t278 - t279;
        // complex block of 2
        const V t282 = t271 - t267;
        // spectrum block of 16
        const V t283 = c[1] * t282;
        const V t284 = c[0] * t282;
        // complex block of 2
        const V t285 = t263 - t275;
        // spectrum block of 16
        const V t286 = c[0] * t285;
        const V t287 = c[1] * t285;
        // complex block of 2
        const V t288 = t267 + t271;
        // spectrum block of 16
        const V t289 = c[0] * t288;
        const V t290 = c[1] * t288;
        // complex block of 2
        const V t291 = t263 + t275;
        // spectrum block of 16
        const V t292 = c[1] * t291;
        const V t293 = c[0] * t291;
        // spectrum block of 17, multiplier 2
        const V t294 = t33 + t40;
        const V t295 = t35 - t42;
        // mirrored skew block of 4
        const V t296 = t294 - t295;
        // spectrum block of 17, multiplier 2
        const V t297 = t34 - t41;
        const V t298 = t43 + t36;
        // mirrored skew block of 4
        const V t299 = t297 - t298;
        const V t300 = c[2] * t296;
        const V t301 = c[2] * t299;
        const V t302 = t300 - t301;
        const V t303 = t300 + t301;
        const V t304 = t294 + t295;
        const V t305 = t297 + t298;
        // spectrum block of 16
        const V t306 = t231 - t228;
        // spectrum block of 2
        const V t307 = t203 + t247;
        // spectrum block of 2
        const V t308 = t307 + t306;
        const V t309 = t307 - t306;
        // spectrum block of 16
        const V t310 = t286 - t283;
        // spectrum block of 2
        const V t311 = t258 + t302;
        // spectrum block of 2
        const V t312 = t311 + t310;
        const V t313 = t311 - t310;
        // spectrum block of 2
        const V t314 = t308 + t312;
        io.out(12, t314);
        const V t315 = t308 - t312;
        io.out(29, t315);
        // spectrum block of 2
        const V t316 = t309 + t313;
        io.out(22, t316);
        const V t317 = t309 - t313;
        io.out(5, t317);
        // spectrum block of 16
        const V t318 = t229 + t232;
        // spectrum block of 2
        const V t319 = t203 - t247;
        // spectrum block of 2
        const V t320 = t319 - t318;
        const V t321 = t319 + t318;
        // spectrum block of 16
        const V t322 = t284 + t287;
        // spectrum block of 2
        const V t323 = t258 - t302;
        // spectrum block of 2
        const V t324 = t323 - t322;
        const V t325 = t323 + t322;
        // spectrum block of 2
        const V t326 = t320 + t324;
        io.out(14, t326);
        const V t327 = t320 - t324;
        io.out(31, t327);
        // spectrum block of 2
        const V t328 = t321 + t325;
        io.out(20, t328);
        const V t329 = t321 - t325;
        io.out(3, t329);
        // spectrum block of 16
        const V t330 = c[2] * t225;
        // spectrum block of 2
        const V t331 = t202 + t250;
        // spectrum block of 2
        const V t332 = t331 - t330;
        const V t333 = t331 + t330;
        // spectrum block of 16
        const V t334 = c[2] * t280;
        // spectrum block of 2
        const V t335 = t257 + t305;
        // spectrum block of 2
        const V t336 = t335 - t334;
        const V t337 = t335 + t334;
        // spectrum block of 2
        const V t338 = t332 + t336;
        io.out(16, t338);
        const V t339 = t332 - t336;
        io.out(33, t339);
        // spectrum block of 2
        const V t340 = t333 + t337;
        io.out(18, t340);
        const V t341 = t333 - t337;
        io.out(1, t341);
        // spectrum block of 16
        const V t342 = c[2] * t226;
        // spectrum block of 2
        const V t343 = t202 - t250;
        // spectrum block of 2
        const V t344 = t343 + t342;
        const V t345 = t343 - t342;
        // spectrum block of 16
        const V t346 = c[2] * t281;
        // spectrum block of 2
        const V t347 = t257 - t305;
        // spectrum block of 2
        const V t348 = t347 - t346;
        const V t349 = t347 + t346;
        // spectrum block of 2
        const V t350 = t344 + t348;
        io.out(4, t350);
        const V t351 = t344 - t348;
        io.out(21, t351);
        // spectrum block of 2
        const V t352 = t345 + t349;
        io.out(30, t352);
        const V t353 = t345 - t349;
        io.out(13, t353);
        // spectrum block of 16
        const V t354 = t237 - t234;
        // spectrum block of 2
        const V t355 = t204 - t248;
        // spectrum block of 2
        const V t356 = t355 + t354;
        const V t357 = t355 - t354;
        // spectrum block of 16
        const V t358 = t292 + t289;
        // spectrum block of 2
        const V t359 = t259 - t303;
        // spectrum block of 2
        const V t360 = t359 + t358;
        const V t361 = t359 - t358;
        // spectrum block of 2
        const V t362 = t357 + t361;
        io.out(10, t362);
        const V t363 = t357 - t361;
        io.out(27, t363);
        // spectrum block of 2
        const V t364 = t356 + t360;
        io.out(24, t364);
        const V t365 = t356 - t360;
        io.out(7, t365);
        // spectrum block of 16
        const V t366 = t235 + t238;
        // spectrum block of 2
        const V t367 = t204 + t248;
        // spectrum block of 2
        const V t368 = t367 - t366;
        const V t369 = t367 + t366;
        // spectrum block of 16
        const V t370 = t293 - t290;
        // spectrum block of 2
        const V t371 = t259 + t303;
        // spectrum block of 2
        const V t372 = t371 - t370;
        const V t373 = t371 + t370;
        // spectrum block of 2
        const V t374 = t369 + t373;
        io.out(6, t374);
        const V t375 = t369 - t373;
        io.out(23, t375);
        // spectrum block of 2
        const V t376 = t368 + t372;
        io.out(28, t376);
        const V t377 = t368 - t372;
        io.out(11, t377);
        // spectrum block of 2
        const V t378 = t201 + t249;
        // spectrum block of 2
        const V t379 = t378 + t222;
        const V t380 = t378 - t222;
        // spectrum block of 2
        const V t381 = t256 + t304;
        // spectrum block of 2
        const V t382 = t381 + t277;
        const V t383 = t381 - t277;
        // spectrum block of 2
        const V t384 = t379 + t382;
        io.out(2, t384);
        const V t385 = t379 - t382;
        io.out(19, t385);
        // spectrum block of 2
        const V t386 = t380 + t383;
        io.out(32, t386);
        const V t387 = t380 - t383;
        io.out(15, t387);
        // spectrum block of 2
        const V t388 = t201 - t249;
        // spectrum block of 2
        const V t389 = t388 - t221;
        const V t390 = t388 + t221;
        // spectrum block of 2
        const V t391 = t256 - t304;
        // spectrum block of 2
        const V t392 = t391 - t276;
        const V t393 = t391 + t276;
        // spectrum block of 2
        const V t394 = t389 + t392;
        io.out(8, t394);
        const V t395 = t389 - t392;
        io.out(25, t395);
        // spectrum block of 2
        const V t396 = t390 + t393;
        io.out(26, t396);
        const V t397 = t390 - t393;
        io.out(9, t397);
        // spectrum block of 17, multiplier 2
        const V t398 = x0r + t118;
        // spectrum block of 17, multiplier 2
        const V t399 = x17r + t20;
        // spectrum block of 2
        const V t400 = t398 + t399;
        io.out(0, t400);
        const V t401 = t398 - t399;
        io.out(17, t401);
    }
};

}  // namespace zulg
