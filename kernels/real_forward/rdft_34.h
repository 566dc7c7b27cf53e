// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 34.
// Forward DFT of 34 real points, prime-factor 2, 17.
// 133 additions, 133 subtractions, 108 multiplications (142 with `scale`); 8 outputs negated; 19 constants; 49 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<34> {
    static constexpr int steps = 408;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.3809911760447736,  // c[3]: Q[2] of 17
        0.347088927763506,  // c[4]: P[2] of 17
        0.039110758925753275,  // c[5]: -Q[6] of 17
        0.5139020806887744,  // c[6]: P[6] of 17
        0.40623178445333147,  // c[7]: -Q[4] of 17
        0.31717619283272513,  // c[8]: -P[4] of 17
        0.506476062234015,  // c[9]: -Q[1] of 17
        0.09543059459065593,  // c[10]: P[1] of 17
        0.3101351696520051,  // c[11]: -Q[7] of 17
        0.4116323317536197,  // c[12]: P[7] of 17
        0.4154752217498508,  // c[13]: Q[3] of 17
        0.3049677689722511,  // c[14]: P[3] of 17
        0.27255963351038787,  // c[15]: -Q[5] of 17
        0.4374199883186445,  // c[16]: P[5] of 17
        0.2576941016011038,  // c[17]: beta of 17
        0.0625,  // c[18]: 1/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x17 = io.in(17);
        const V t0 = x0 + x17;
        const V t1 = x0 - x17;
        // real block of 2
        const V x18 = io.in(18);
        const V x1 = io.in(1);
        const V t2 = x18 + x1;
        const V t3 = x18 - x1;
        // real block of 2
        const V x4 = io.in(4);
        const V x21 = io.in(21);
        const V t4 = x4 + x21;
        const V t5 = x4 - x21;
        // real block of 2
        const V x30 = io.in(30);
        const V x13 = io.in(13);
        const V t6 = x30 + x13;
        const V t7 = x30 - x13;
        // real block of 2
        const V x16 = io.in(16);
        const V x33 = io.in(33);
        const V t8 = x16 + x33;
        const V t9 = x16 - x33;
        // real block of 2
        const V t10 = t2 + t8;
        const V t11 = t2 - t8;
        // real block of 2
        const V t12 = t6 - t4;
        // real block of 16
        const V t13 = t11 - t12;
        const V t14 = t12 + t11;
        // real block of 2
        const V t15 = t6 + t4;
        // real block of 2
        const V t16 = t3 + t9;
        const V t17 = t3 - t9;
        // real block of 2
        const V t18 = t7 - t5;
        // real block of 16
        const V t19 = t17 - t18;
        const V t20 = t18 + t17;
        // real block of 2
        const V t21 = t7 + t5;
        // real block of 2
        const V x2 = io.in(2);
        const V x19 = io.in(19);
        const V t22 = x2 + x19;
        const V t23 = x2 - x19;
        // real block of 2
        const V x32 = io.in(32);
        const V x15 = io.in(15);
        const V t24 = x32 + x15;
        const V t25 = x32 - x15;
        // real block of 2
        const V t26 = t22 + t24;
        const V t27 = t22 - t24;
        // real block of 2
        const V t28 = t23 + t25;
        const V t29 = t23 - t25;
        // real block of 2
        const V x20 = io.in(20);
        const V x3 = io.in(3);
        const V t30 = x20 + x3;
        const V t31 = x20 - x3;
        // real block of 2
        const V x22 = io.in(22);
        const V x5 = io.in(5);
        const V t32 = x22 + x5;
        const V t33 = x22 - x5;
        // real block of 2
        const V x12 = io.in(12);
        const V x29 = io.in(29);
        const V t34 = x12 + x29;
        const V t35 = x12 - x29;
        // real block of 2
        const V x14 = io.in(14);
        const V x31 = io.in(31);
        const V t36 = x14 + x31;
        const V t37 = x14 - x31;
        // real block of 2
        const V t38 = t30 + t36;
        // real block of 2
        const V t39 = t32 + t34;
        // real block of 2
        const V t40 = t38 - t39;
        // real block of 2
        const V t41 = t30 - t36;
        // real block of 16
        const V t42 = c[0] * t41;
        const V t43 = c[1] * t41;
        // real block of 2
        const V t44 = t32 - t34;
        // real block of 16
        const V t45 = c[1] * t44;
        const V t46 = c[0] * t44;
        // real block of 2
        const V t47 = t31 + t37;
        // real block of 2
        const V t48 = t33 + t35;
        // real block of 2
        const V t49 = t47 - t48;
        // real block of 2
        const V t50 = t31 - t37;
        // real block of 16
        const V t51 = c[0] * t50;
        const V t52 = c[1] * t50;
        // real block of 2
        const V t53 = t33 - t35;
        // real block of 16
        const V t54 = c[1] * t53;
        const V t55 = c[0] * t53;
        // real block of 2
        const V x6 = io.in(6);
        const V x23 = io.in(23);
        const V t56 = x6 + x23;
        const V t57 = x6 - x23;
        // real block of 2
        const V x24 = io.in(24);
        const V x7 = io.in(7);
        const V t58 = x24 + x7;
        const V t59 = x24 - x7;
        // real block of 2
        const V x10 = io.in(10);
        const V x27 = io.in(27);
        const V t60 = x10 + x27;
        const V t61 = x10 - x27;
        // real block of 2
        const V x28 = io.in(28);
        const V x11 = io.in(11);
        const V t62 = x28 + x11;
        const V t63 = x28 - x11;
        // real block of 2
        const V t64 = t56 + t62;
        // real block of 2
        const V t65 = t60 + t58;
        // real block of 2
        const V t66 = t64 - t65;
        // real block of 2
        const V t67 = t56 - t62;
        // real block of 16
        const V t68 = c[1] * t67;
        const V t69 = c[0] * t67;
        // real block of 2
        const V t70 = t60 - t58;
        // real block of 16
        const V t71 = c[0] * t70;
        const V t72 = c[1] * t70;
        // real block of 2
        const V t73 = t57 + t63;
        // real block of 2
        const V t74 = t61 + t59;
        // real block of 2
        const V t75 = t73 - t74;
        // real block of 2
        const V t76 = t57 - t63;
        // real block of 16
        const V t77 = c[1] * t76;
        const V t78 = c[0] * t76;
        // real block of 2
        const V t79 = t61 - t59;
        // real block of 16
        const V t80 = c[0] * t79;
        const V t81 = c[1] * t79;
        // real block of 2
        const V x8 = io.in(8);
        const V x25 = io.in(25);
        const V t82 = x8 + x25;
        const V t83 = x8 - x25;
        // real block of 2
        const V x26 = io.in(26);
        const V x9 = io.in(9);
        const V t84 = x26 + x9;
        const V t85 = x26 - x9;
        // real block of 2
        const V t86 = t84 + t82;
        const V t87 = t84 - t82;
        // real block of 2
        const V t88 = t85 + t83;
        const V t89 = t85 - t83;
        // real block of 2
        const V t90 = t26 + t86;
        // real block of 2
        const V t91 = t10 + t15;
        // real block of 2
        const V t92 = t90 + t91;
        // real block of 2
        const V t93 = t64 + t65;
        // real block of 2
        const V t94 = t38 + t39;
        // real block of 2
        const V t95 = t93 + t94;
        // real block of 2
        const V t96 = t90 - t91;
        // real block of 2
        const V t97 = t93 - t94;
        // real block of 2
        const V t98 = t92 + t95;
        // real block of 2
        const V t99 = t26 - t86;
        // skew block of 4
        const V t100 = t66 - t40;
        const V t101 = c[2] * t100;
        const V t102 = t99 + t101;
        const V t103 = t99 - t101;
        // real block of 2
        const V t104 = t10 - t15;
        // skew block of 4
        const V t105 = t66 + t40;
        const V t106 = c[2] * t105;
        const V t107 = t106 - t104;
        const V t108 = t104 + t106;
        // real block of 16
        const V t109 = t68 - t71;
        const V t110 = t42 - t45;
        // complex block of 2
        const V t111 = t109 + t110;
        const V t112 = t109 - t110;
        // real block of 16
        const V t113 = t72 + t69;
        const V t114 = t46 + t43;
        // complex block of 2
        const V t115 = t113 + t114;
        const V t116 = t114 - t113;
        // real block of 16
        const V t117 = c[2] * t13;
        // complex block of 2
        const V t118 = t27 + t117;
        const V t119 = t27 - t117;
        // real block of 16
        const V t120 = c[2] * t14;
        // complex block of 2
        const V t121 = t87 + t120;
        const V t122 = t120 - t87;
        // complex block of 2
        const V t123 = t118 + t111;
        const V t124 = t121 + t115;
        const V t125 = t118 - t111;
        const V t126 = t115 - t121;
        // complex block of 2
        const V t127 = t119 + t116;
        const V t128 = t122 - t112;
        const V t129 = t119 - t116;
        const V t130 = t122 + t112;
        // real block of 2
        const V t131 = t28 + t88;
        // real block of 2
        const V t132 = t16 + t21;
        // real block of 2
        const V t133 = t131 + t132;
        // real block of 2
        const V t134 = t73 + t74;
        // real block of 2
        const V t135 = t47 + t48;
        // real block of 2
        const V t136 = t134 + t135;
        // real block of 2
        const V t137 = t131 - t132;
        // real block of 2
        const V t138 = t134 - t135;
        // real block of 2
        const V t139 = t133 + t136;
        // real block of 2
        const V t140 = t28 - t88;
        // skew block of 4
        const V t141 = t75 - t49;
        const V t142 = c[2] * t141;
        const V t143 = t140 + t142;
        const V t144 = t140 - t142;
        // real block of 2
        const V t145 = t16 - t21;
        // skew block of 4
        const V t146 = t75 + t49;
        const V t147 = c[2] * t146;
        const V t148 = t147 - t145;
        const V t149 = t145 + t147;
        // real block of 16
        const V t150 = t77 - t80;
        const V t151 = t51 - t54;
        // complex block of 2
        const V t152 = t150 + t151;
        const V t153 = t150 - t151;
        // real block of 16
        const V t154 = t81 + t78;
        const V t155 = t55 + t52;
        // complex block of 2
        const V t156 = t154 + t155;
        const V t157 = t155 - t154;
        // real block of 16
        const V t158 = c[2] * t19;
        // complex block of 2
        const V t159 = t29 + t158;
        const V t160 = t29 - t158;
        // real block of 16
        const V t161 = c[2] * t20;
        // complex block of 2
        const V t162 = t89 + t161;
        const V t163 = t161 - t89;
        // complex block of 2
        const V t164 = t159 + t152;
        const V t165 = t162 + t156;
        const V t166 = t159 - t152;
        const V t167 = t156 - t162;
        // complex block of 2
        const V t168 = t160 + t157;
        const V t169 = t163 - t153;
        const V t170 = t160 - t157;
        const V t171 = t163 + t153;
        // real block of 2
        const V t172 = t92 - t95;
        // real block of 17, multiplier 2
        const V t173 = c[17] * t172;
        const V t174 = c[18] * t98;
        const V t175 = t0 - t174;
        // spectrum block of 2
        const V t176 = t175 + t173;
        const V t177 = t175 - t173;
        // real block of 17, multiplier 2
        const V t178 = c[3] * t108;
        const V t179 = c[4] * t102;
        const V t180 = t179 + t178;
        const V t181 = c[5] * t107;
        const V t182 = c[6] * t103;
        const V t183 = t182 - t181;
        // mirrored skew block of 4
        const V t184 = t180 - t183;
        // real block of 17, multiplier 2
        const V t185 = c[3] * t102;
        const V t186 = c[4] * t108;
        const V t187 = t185 - t186;
        const V t188 = c[5] * t103;
        const V t189 = c[6] * t107;
        const V t190 = t189 + t188;
        // mirrored skew block of 4
        const V t191 = t187 - t190;
        // real block of 17, multiplier 2
        const V t192 = c[7] * t97;
        const V t193 = c[8] * t96;
        const V t194 = t193 + t192;
        const V t195 = c[7] * t96;
        const V t196 = c[8] * t97;
        const V t197 = t196 - t195;
        // spectrum block of 2
        const V t198 = t176 - t194;
        // mirrored skew block of 4
        const V t199 = t180 + t183;
        // spectrum block of 2
        const V t200 = t198 + t199;
        io.re(2, t200);
        const V t201 = t198 - t199;
        io.re(8, t201);
        // spectrum block of 2
        const V t202 = t176 + t194;
        // mirrored skew block of 4
        const V t203 = t187 + t190;
        // spectrum block of 2
        const V t204 = t202 - t203;
        io.re(4, t204);
        const V t205 = t202 + t203;
        io.re(16, t205);
        // spectrum block of 2
        const V t206 = t177 - t197;
        const V t207 = t177 + t197;
        // mirrored skew block of 4
        const V t208 = c[2] * t184;
        const V t209 = c[2] * t191;
        const V t210 = t208 - t209;
        const V t211 = t208 + t209;
        // spectrum block of 2
        const V t212 = t206 + t210;
        io.re(12, t212);
        const V t213 = t206 - t210;
        io.re(14, t213);
        // spectrum block of 2
        const V t214 = t207 - t211;
        io.re(10, t214);
        const V t215 = t207 + t211;
        io.re(6, t215);
        // real block of 17, multiplier 2
        const V t216 = t0 + t98;
        io.re(0, t216);
        const V t217 = c[9] * t124;
        const V t218 = c[10] * t123;
        const V t219 = t218 - t217;
        const V t220 = c[11] * t126;
        const V t221 = c[12] * t125;
        const V t222 = t221 - t220;
        // complex block of 2
        const V t223 = t222 - t219;
        const V t224 = t219 + t222;
        // real block of 17, multiplier 2
        const V t225 = c[9] * t123;
        const V t226 = c[10] * t124;
        const V t227 = t226 + t225;
        const V t228 = c[11] * t125;
        const V t229 = c[12] * t126;
        const V t230 = t229 + t228;
        // complex block of 2
        const V t231 = t227 + t230;
        const V t232 = t230 - t227;
        // real block of 17, multiplier 2
        const V t233 = c[13] * t130;
        const V t234 = c[14] * t129;
        const V t235 = t234 + t233;
        const V t236 = c[15] * t128;
        const V t237 = c[16] * t127;
        const V t238 = t237 + t236;
        // complex block of 2
        const V t239 = t235 - t238;
        const V t240 = t238 + t235;
        // real block of 17, multiplier 2
        const V t241 = c[13] * t129;
        const V t242 = c[14] * t130;
        const V t243 = t241 - t242;
        const V t244 = c[15] * t127;
        const V t245 = c[16] * t128;
        const V t246 = t245 - t244;
        // complex block of 2
        const V t247 = t246 + t243;
        const V t248 = t246 - t243;
        // complex block of 2
        const V t249 = t223 + t239;
        io.minusIm(8, t249);
        const V t250 = t247 - t231;
        io.im(2, t250);
        const V t251 = t223 - t239;
        // mirrored skew block of 8
        const V t252 = c[2] * t251;
        // complex block of 2
        const V t253 = t231 + t247;
        // mirrored skew block of 8
        const V t254 = c[2] * t253;
        const V t255 = t252 - t254;
        io.minusIm(16, t255);
        const V t256 = t252 + t254;
        io.minusIm(4, t256);
        // complex block of 2
        const V t257 = t248 - t224;
        // mirrored skew block of 8
        const V t258 = c[0] * t257;
        const V t259 = c[1] * t257;
        // complex block of 2
        const V t260 = t232 + t240;
        // mirrored skew block of 8
        const V t261 = c[1] * t260;
        const V t262 = c[0] * t260;
        const V t263 = t261 - t258;
        io.im(12, t263);
        const V t264 = t259 + t262;
        io.minusIm(14, t264);
        // complex block of 2
        const V t265 = t224 + t248;
        // mirrored skew block of 8
        const V t266 = c[1] * t265;
        const V t267 = c[0] * t265;
        // complex block of 2
        const V t268 = t232 - t240;
        // mirrored skew block of 8
        const V t269 = c[0] * t268;
        const V t270 = c[1] * t268;
        const V t271 = t269 + t266;
        io.minusIm(10, t271);
        const V t272 = t270 - t267;
        io.im(6, t272);
        // real block of 2
        const V t273 = t133 - t136;
        // real block of 17, multiplier 2
        const V t274 = c[17] * t273;
        const V t275 = c[18] * t139;
        const V t276 = t1 - t275;
        // spectrum block of 2
        const V t277 = t276 + t274;
        const V t278 = t276 - t274;
        // real block of 17, multiplier 2
        const V t279 = c[3] * t149;
        const V t280 = c[4] * t143;
        const V t281 = t280 + t279;
        const V t282 = c[5] * t148;
        const V t283 = c[6] * t144;
        const V t284 = t283 - t282;
        // mirrored skew block of 4
        const V t285 = t281 - t284;
        // real block of 17, multiplier 2
        const V t286 = c[3] * t143;
        const V t287 = c[4] * t149;
        const V t288 = t286 - t287;
        const V t289 = c[5] * t144;
        const V t290 = c[6] * t148;
        const V t291 = t290 + t289;
        // mirrored skew block of 4
        const V t292 = t288 - t291;
        // real block of 17, multiplier 2
        const V t293 = c[7] * t138;
        const V t294 = c[8] * t137;
        const V t295 = t294 + t293;
        const V t296 = c[7] * t137;
        const V t297 = c[8] * t138;
        const V t298 = t297 - t296;
        // spectrum block of 2
        const V t299 = t277 - t295;
        // mirrored skew block of 4
        const V t300 = t281 + t284;
        // spectrum block of 2
        const V t301 = t299 + t300;
        io.re(15, t301);
        const V t302 = t299 - t300;
        io.re(9, t302);
        // spectrum block of 2
        const V t303 = t277 + t295;
        // mirrored skew block of 4
        const V t304 = t288 + t291;
        // spectrum block of 2
        const V t305 = t303 - t304;
        io.re(13, t305);
        const V t306 = t303 + t304;
        io.re(1, t306);
        // spectrum block of 2
        const V t307 = t278 - t298;
        const V t308 = t278 + t298;
        // mirrored skew block of 4
        const V t309 = c[2] * t285;
        const V t310 = c[2] * t292;
        const V t311 = t309 - t310;
        const V t312 = t309 + t310;
        // spectrum block of 2
        const V t313 = t307 + t311;
        io.re(5, t313);
        const V t314 = t307 - t311;
        io.re(3, t314);
        // spectrum block of 2
        const V t315 = t308 - t312;
        io.re(7, t315);
        const V t316 = t308 + t312;
        io.re(11, t316);
        // real block of 17, multiplier 2
        const V t317 = t1 + t139;
        io.re(17, t317);
        const V t318 = c[9] * t165;
        const V t319 = c[10] * t164;
        const V t320 = t319 - t318;
        const V t321 = c[11] * t167;
        const V t322 = c[12] * t166;
        const V t323 = t322 - t321;
        // complex block of 2
        const V t324 = t323 - t320;
        const V t325 = t320 + t323;
        // real block of 17, multiplier 2
        const V t326 = c[9] * t164;
        const V t327 = c[10] * t165;
        const V t328 = t327 + t326;
        const V t329 = c[11] * t166;
        const V t330 = c[12] * t167;
        const V t331 = t330 + t329;
        // complex block of 2
        const V t332 = t328 + t331;
        const V t333 = t331 - t328;
        // real block of 17, multiplier 2
        const V t334 = c[13] * t171;
        const V t335 = c[14] * t170;
        const V t336 = t335 + t334;
        const V t337 = c[15] * t169;
        const V t338 = c[16] * t168;
        const V t339 = t338 + t337;
        // complex block of 2
        const V t340 = t336 - t339;
        const V t341 = t339 + t336;
        // real block of 17, multiplier 2
        const V t342 = c[13] * t170;
        const V t343 = c[14] * t171;
        const V t344 = t342 - t343;
        const V t345 = c[15] * t168;
        const V t346 = c[16] * t169;
        const V t347 = t346 - t345;
        // complex block of 2
        const V t348 = t347 + t344;
        const V t349 = t347 - t344;
        // complex block of 2
        const V t350 = t324 + t340;
        io.im(9, t350);
        const V t351 = t348 - t332;
        io.minusIm(15, t351);
        const V t352 = t324 - t340;
        // mirrored skew block of 8
        const V t353 = c[2] * t352;
        // complex block of 2
        const V t354 = t332 + t348;
        // mirrored skew block of 8
        const V t355 = c[2] * t354;
        const V t356 = t353 - t355;
        io.im(1, t356);
        const V t357 = t353 + t355;
        io.im(13, t357);
        // complex block of 2
        const V t358 = t349 - t325;
        // mirrored skew block of 8
        const V t359 = c[0] * t358;
        const V t360 = c[1] * t358;
        // complex block of 2
        const V t361 = t333 + t341;
        // mirrored skew block of 8
        const V t362 = c[1] * t361;
        const V t363 = c[0] * t361;
        const V t364 = t362 - t359;
        io.minusIm(5, t364);
        const V t365 = t360 + t363;
        io.im(3, t365);
        // complex block of 2
        const V t366 = t325 + t349;
        // mirrored skew block of 8
        const V t367 = c[1] * t366;
        const V t368 = c[0] * t366;
        // complex block of 2
        const V t369 = t333 - t341;
        // mirrored skew block of 8
        const V t370 = c[0] * t369;
        const V t371 = c[1] * t369;
        const V t372 = t370 + t367;
        io.im(7, t372);
        const V t373 = t371 - t368;
        io.minusIm(11, t373);
    }
};

}  // namespace zulg
