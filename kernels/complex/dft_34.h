// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 34.
// Complex DFT of 34 points, prime-factor, order 2, 17.
// 298 additions, 298 subtractions, 216 multiplications (284 with `scale`); 19 constants; 83 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<34> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.09543059459065593,  // c[3]: P[1] of 17
        0.506476062234015,  // c[4]: Q[1] of 17
        0.3049677689722511,  // c[5]: P[3] of 17
        0.4154752217498508,  // c[6]: -Q[3] of 17
        0.4374199883186445,  // c[7]: P[5] of 17
        0.27255963351038787,  // c[8]: Q[5] of 17
        0.4116323317536197,  // c[9]: P[7] of 17
        0.3101351696520051,  // c[10]: Q[7] of 17
        0.3809911760447736,  // c[11]: Q[2] of 17
        0.347088927763506,  // c[12]: P[2] of 17
        0.039110758925753275,  // c[13]: -Q[6] of 17
        0.5139020806887744,  // c[14]: P[6] of 17
        0.40623178445333147,  // c[15]: -Q[4] of 17
        0.31717619283272513,  // c[16]: -P[4] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x17r = io.re(17);
        const V t0 = x0r + x17r;
        const V t1 = x0r - x17r;
        const V x0i = io.im(0);
        const V x17i = io.im(17);
        const V t2 = x0i + x17i;
        const V t3 = x0i - x17i;
        // complex block of 2
        const V x18r = io.re(18);
        const V x1r = io.re(1);
        const V t4 = x18r + x1r;
        const V t5 = x18r - x1r;
        // complex block of 2
        const V x4r = io.re(4);
        const V x21r = io.re(21);
        const V t6 = x4r + x21r;
        const V t7 = x4r - x21r;
        // complex block of 2
        const V x30r = io.re(30);
        const V x13r = io.re(13);
        const V t8 = x30r + x13r;
        const V t9 = x30r - x13r;
        // complex block of 2
        const V x16r = io.re(16);
        const V x33r = io.re(33);
        const V t10 = x16r + x33r;
        const V t11 = x16r - x33r;
        // real block of 2
        const V t12 = t4 + t10;
        const V t13 = t4 - t10;
        // real block of 2
        const V t14 = t8 - t6;
        // real block of 16
        const V t15 = t13 - t14;
        const V t16 = t14 + t13;
        // real block of 2
        const V t17 = t8 + t6;
        // real block of 2
        const V t18 = t5 + t11;
        const V t19 = t5 - t11;
        // real block of 2
        const V t20 = t9 - t7;
        // real block of 16
        const V t21 = t19 - t20;
        const V t22 = t20 + t19;
        // real block of 2
        const V t23 = t9 + t7;
        // complex block of 2
        const V x2r = io.re(2);
        const V x19r = io.re(19);
        const V t24 = x2r + x19r;
        const V t25 = x2r - x19r;
        // complex block of 2
        const V x32r = io.re(32);
        const V x15r = io.re(15);
        const V t26 = x32r + x15r;
        const V t27 = x32r - x15r;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 2
        const V t30 = t25 + t27;
        const V t31 = t25 - t27;
        // complex block of 2
        const V x20r = io.re(20);
        const V x3r = io.re(3);
        const V t32 = x20r + x3r;
        const V t33 = x20r - x3r;
        // complex block of 2
        const V x22r = io.re(22);
        const V x5r = io.re(5);
        const V t34 = x22r + x5r;
        const V t35 = x22r - x5r;
        // complex block of 2
        const V x12r = io.re(12);
        const V x29r = io.re(29);
        const V t36 = x12r + x29r;
        const V t37 = x12r - x29r;
        // complex block of 2
        const V x14r = io.re(14);
        const V x31r = io.re(31);
        const V t38 = x14r + x31r;
        const V t39 = x14r - x31r;
        // real block of 2
        const V t40 = t32 + t38;
        // real block of 2
        const V t41 = t34 + t36;
        // real block of 2
        const V t42 = t40 - t41;
        // real block of 2
        const V t43 = t32 - t38;
        // real block of 16
        const V t44 = c[0] * t43;
        const V t45 = c[1] * t43;
        // real block of 2
        const V t46 = t34 - t36;
        // real block of 16
        const V t47 = c[1] * t46;
        const V t48 = c[0] * t46;
        // real block of 2
        const V t49 = t33 + t39;
        // real block of 2
        const V t50 = t35 + t37;
        // real block of 2
        const V t51 = t49 - t50;
        // real block of 2
        const V t52 = t33 - t39;
        // real block of 16
        const V t53 = c[0] * t52;
        const V t54 = c[1] * t52;
        // real block of 2
        const V t55 = t35 - t37;
        // real block of 16
        const V t56 = c[1] * t55;
        const V t57 = c[0] * t55;
        // complex block of 2
        const V x6r = io.re(6);
        const V x23r = io.re(23);
        const V t58 = x6r + x23r;
        const V t59 = x6r - x23r;
        // complex block of 2
        const V x24r = io.re(24);
        const V x7r = io.re(7);
        const V t60 = x24r + x7r;
        const V t61 = x24r - x7r;
        // complex block of 2
        const V x10r = io.re(10);
        const V x27r = io.re(27);
        const V t62 = x10r + x27r;
        const V t63 = x10r - x27r;
        // complex block of 2
        const V x28r = io.re(28);
        const V x11r = io.re(11);
        const V t64 = x28r + x11r;
        const V t65 = x28r - x11r;
        // real block of 2
        const V t66 = t58 + t64;
        // real block of 2
        const V t67 = t62 + t60;
        // real block of 2
        const V t68 = t66 - t67;
        // real block of 2
        const V t69 = t58 - t64;
        // real block of 16
        const V t70 = c[1] * t69;
        const V t71 = c[0] * t69;
        // real block of 2
        const V t72 = t62 - t60;
        // real block of 16
        const V t73 = c[0] * t72;
        const V t74 = c[1] * t72;
        // real block of 2
        const V t75 = t59 + t65;
        // real block of 2
        const V t76 = t63 + t61;
        // real block of 2
        const V t77 = t75 - t76;
        // real block of 2
        const V t78 = t59 - t65;
        // real block of 16
        const V t79 = c[1] * t78;
        const V t80 = c[0] * t78;
        // real block of 2
        const V t81 = t63 - t61;
        // real block of 16
        const V t82 = c[0] * t81;
        const V t83 = c[1] * t81;
        // complex block of 2
        const V x8r = io.re(8);
        const V x25r = io.re(25);
        const V t84 = x8r + x25r;
        const V t85 = x8r - x25r;
        // complex block of 2
        const V x26r = io.re(26);
        const V x9r = io.re(9);
        const V t86 = x26r + x9r;
        const V t87 = x26r - x9r;
        // real block of 2
        const V t88 = t86 + t84;
        const V t89 = t86 - t84;
        // real block of 2
        const V t90 = t87 + t85;
        const V t91 = t87 - t85;
        // real block of 2
        const V t92 = t28 + t88;
        // real block of 2
        const V t93 = t12 + t17;
        // real block of 2
        const V t94 = t92 + t93;
        // real block of 2
        const V t95 = t66 + t67;
        // real block of 2
        const V t96 = t40 + t41;
        // real block of 2
        const V t97 = t95 + t96;
        // real block of 2
        const V t98 = t92 - t93;
        // real block of 2
        const V t99 = t95 - t96;
        // real block of 2
        const V t100 = t94 + t97;
        const V t101 = t94 - t97;
        // real block of 2
        const V t102 = t28 - t88;
        // skew block of 4
        const V t103 = t68 - t42;
        const V t104 = c[2] * t103;
        const V t105 = t102 + t104;
        const V t106 = t102 - t104;
        // real block of 2
        const V t107 = t12 - t17;
        // skew block of 4
        const V t108 = t68 + t42;
        const V t109 = c[2] * t108;
        const V t110 = t109 - t107;
        const V t111 = t107 + t109;
        // real block of 16
        const V t112 = t70 - t73;
        const V t113 = t44 - t47;
        // complex block of 2
        const V t114 = t112 + t113;
        const V t115 = t112 - t113;
        // real block of 16
        const V t116 = t74 + t71;
        const V t117 = t48 + t45;
        // complex block of 2
        const V t118 = t116 + t117;
        const V t119 = t117 - t116;
        // real block of 16
        const V t120 = c[2] * t15;
        // complex block of 2
        const V t121 = t29 + t120;
        const V t122 = t29 - t120;
        // real block of 16
        const V t123 = c[2] * t16;
        // complex block of 2
        const V t124 = t89 + t123;
        const V t125 = t123 - t89;
        // complex block of 2
        const V t126 = t121 + t114;
        const V t127 = t124 + t118;
        const V t128 = t121 - t114;
        const V t129 = t118 - t124;
        // complex block of 2
        const V t130 = t122 + t119;
        const V t131 = t125 - t115;
        const V t132 = t122 - t119;
        const V t133 = t125 + t115;
        // real block of 2
        const V t134 = t30 + t90;
        // real block of 2
        const V t135 = t18 + t23;
        // real block of 2
        const V t136 = t134 + t135;
        // real block of 2
        const V t137 = t75 + t76;
        // real block of 2
        const V t138 = t49 + t50;
        // real block of 2
        const V t139 = t137 + t138;
        // real block of 2
        const V t140 = t134 - t135;
        // real block of 2
        const V t141 = t137 - t138;
        // real block of 2
        const V t142 = t136 + t139;
        const V t143 = t136 - t139;
        // real block of 2
        const V t144 = t30 - t90;
        // skew block of 4
        const V t145 = t77 - t51;
        const V t146 = c[2] * t145;
        const V t147 = t144 + t146;
        const V t148 = t144 - t146;
        // real block of 2
        const V t149 = t18 - t23;
        // skew block of 4
        const V t150 = t77 + t51;
        const V t151 = c[2] * t150;
        const V t152 = t151 - t149;
        const V t153 = t149 + t151;
        // real block of 16
        const V t154 = t79 - t82;
        const V t155 = t53 - t56;
        // complex block of 2
        const V t156 = t154 + t155;
        const V t157 = t154 - t155;
        // real block of 16
        const V t158 = t83 + t80;
        const V t159 = t57 + t54;
        // complex block of 2
        const V t160 = t158 + t159;
        const V t161 = t159 - t158;
        // real block of 16
        const V t162 = c[2] * t21;
        // complex block of 2
        const V t163 = t31 + t162;
        const V t164 = t31 - t162;
        // real block of 16
        const V t165 = c[2] * t22;
        // complex block of 2
        const V t166 = t91 + t165;
        const V t167 = t165 - t91;
        // complex block of 2
        const V t168 = t163 + t156;
        const V t169 = t166 + t160;
        const V t170 = t163 - t156;
        const V t171 = t160 - t166;
        // complex block of 2
        const V t172 = t164 + t161;
        const V t173 = t167 - t157;
        const V t174 = t164 - t161;
        const V t175 = t167 + t157;
        // complex block of 2
        const V x18i = io.im(18);
        const V x1i = io.im(1);
        const V t176 = x18i + x1i;
        const V t177 = x18i - x1i;
        // complex block of 2
        const V x4i = io.im(4);
        const V x21i = io.im(21);
        const V t178 = x4i + x21i;
        const V t179 = x4i - x21i;
        // complex block of 2
        const V x30i = io.im(30);
        const V x13i = io.im(13);
        const V t180 = x30i + x13i;
        const V t181 = x30i - x13i;
        // complex block of 2
        const V x16i = io.im(16);
        const V x33i = io.im(33);
        const V t182 = x16i + x33i;
        const V t183 = x16i - x33i;
        // real block of 2
        const V t184 = t176 + t182;
        const V t185 = t176 - t182;
        // real block of 2
        const V t186 = t180 - t178;
        // real block of 16
        const V t187 = t185 - t186;
        const V t188 = t186 + t185;
        // real block of 2
        const V t189 = t180 + t178;
        // real block of 2
        const V t190 = t177 + t183;
        const V t191 = t177 - t183;
        // real block of 2
        const V t192 = t181 - t179;
        // real block of 16
        const V t193 = t191 - t192;
        const V t194 = t192 + t191;
        // real block of 2
        const V t195 = t181 + t179;
        // complex block of 2
        const V x2i = io.im(2);
        const V x19i = io.im(19);
        const V t196 = x2i + x19i;
        const V t197 = x2i - x19i;
        // complex block of 2
        const V x32i = io.im(32);
        const V x15i = io.im(15);
        const V t198 = x32i + x15i;
        const V t199 = x32i - x15i;
        // real block of 2
        const V t200 = t196 + t198;
        const V t201 = t196 - t198;
        // real block of 2
        const V t202 = t197 + t199;
        const V t203 = t197 - t199;
        // complex block of 2
        const V x20i = io.im(20);
        const V x3i = io.im(3);
        const V t204 = x20i + x3i;
        const V t205 = x20i - x3i;
        // complex block of 2
        const V x22i = io.im(22);
        const V x5i = io.im(5);
        const V t206 = x22i + x5i;
        const V t207 = x22i - x5i;
        // complex block of 2
        const V x12i = io.im(12);
        const V x29i = io.im(29);
        const V t208 = x12i + x29i;
        const V t209 = x12i - x29i;
        // complex block of 2
        const V x14i = io.im(14);
        const V x31i = io.im(31);
        const V t210 = x14i + x31i;
        const V t211 = x14i - x31i;
        // real block of 2
        const V t212 = t204 + t210;
        // real block of 2
        const V t213 = t206 + t208;
        // real block of 2
        const V t214 = t212 - t213;
        // real block of 2
        const V t215 = t204 - t210;
        // real block of 16
        const V t216 = c[0] * t215;
        const V t217 = c[1] * t215;
        // real block of 2
        const V t218 = t206 - t208;
        // real block of 16
        const V t219 = c[1] * t218;
        const V t220 = c[0] * t218;
        // real block of 2
        const V t221 = t205 + t211;
        // real block of 2
        const V t222 = t207 + t209;
        // real block of 2
        const V t223 = t221 - t222;
        // real block of 2
        const V t224 = t205 - t211;
        // real block of 16
        const V t225 = c[0] * t224;
        const V t226 = c[1] * t224;
        // real block of 2
        const V t227 = t207 - t209;
        // real block of 16
        const V t228 = c[1] * t227;
        const V t229 = c[0] * t227;
        // complex block of 2
        const V x6i = io.im(6);
        const V x23i = io.im(23);
        const V t230 = x6i + x23i;
        const V t231 = x6i - x23i;
        // complex block of 2
        const V x24i = io.im(24);
        const V x7i = io.im(7);
        const V t232 = x24i + x7i;
        const V t233 = x24i - x7i;
        // complex block of 2
        const V x10i = io.im(10);
        const V x27i = io.im(27);
        const V t234 = x10i + x27i;
        const V t235 = x10i - x27i;
        // complex block of 2
        const V x28i = io.im(28);
        const V x11i = io.im(11);
        const V t236 = x28i + x11i;
        const V t237 = x28i - x11i;
        // real block of 2
        const V t238 = t230 + t236;
        // real block of 2
        const V t239 = t234 + t232;
        // real block of 2
        const V t240 = t238 - t239;
        // real block of 2
        const V t241 = t230 - t236;
        // real block of 16
        const V t242 = c[1] * t241;
        const V t243 = c[0] * t241;
        // real block of 2
        const V t244 = t234 - t232;
        // real block of 16
        const V t245 = c[0] * t244;
        const V t246 = c[1] * t244;
        // real block of 2
        const V t247 = t231 + t237;
        // real block of 2
        const V t248 = t235 + t233;
        // real block of 2
        const V t249 = t247 - t248;
        // real block of 2
        const V t250 = t231 - t237;
        // real block of 16
        const V t251 = c[1] * t250;
        const V t252 = c[0] * t250;
        // real block of 2
        const V t253 = t235 - t233;
        // real block of 16
        const V t254 = c[0] * t253;
        const V t255 = c[1] * t253;
        // complex block of 2
        const V x8i = io.im(8);
        const V x25i = io.im(25);
        const V t256 = x8i + x25i;
        const V t257 = x8i - x25i;
        // complex block of 2
        const V x26i = io.im(26);
        const V x9i = io.im(9);
        const V t258 = x26i + x9i;
        const V t259 = x26i - x9i;
        // real block of 2
        const V t260 = t258 + t256;
        const V t261 = t258 - t256;
        // real block of 2
        const V t262 = t259 + t257;
        const V t263 = t259 - t257;
        // real block of 2
        const V t264 = t200 + t260;
        // real block of 2
        const V t265 = t184 + t189;
        // real block of 2
        const V t266 = t264 + t265;
        // real block of 2
        const V t267 = t238 + t239;
        // real block of 2
        const V t268 = t212 + t213;
        // real block of 2
        const V t269 = t267 + t268;
        // real block of 2
        const V t270 = t264 - t265;
        // real block of 2
        const V t271 = t267 - t268;
        // real block of 2
        const V t272 = t266 + t269;
        const V t273 = t266 - t269;
        // real block of 2
        const V t274 = t200 - t260;
        // skew block of 4
        const V t275 = t240 - t214;
        const V t276 = c[2] * t275;
        const V t277 = t274 + t276;
        const V t278 = t274 - t276;
        // real block of 2
        const V t279 = t184 - t189;
        // skew block of 4
        const V t280 = t240 + t214;
        const V t281 = c[2] * t280;
        const V t282 = t281 - t279;
        const V t283 = t279 + t281;
        // real block of 16
        const V t284 = t242 - t245;
        const V t285 = t216 - t219;
        // complex block of 2
        const V t286 = t284 + t285;
        const V t287 = t284 - t285;
        // real block of 16
        const V t288 = t246 + t243;
        const V t289 = t220 + t217;
        // complex block of 2
        const V t290 = t288 + t289;
        const V t291 = t289 - t288;
        // real block of 16
        const V t292 = c[2] * t187;
        // complex block of 2
        const V t293 = t201 + t292;
        const V t294 = t201 - t292;
        // real block of 16
        const V t295 = c[2] * t188;
        // complex block of 2
        const V t296 = t261 + t295;
        const V t297 = t295 - t261;
        // complex block of 2
        const V t298 = t293 + t286;
        const V t299 = t296 + t290;
        const V t300 = t293 - t286;
        const V t301 = t290 - t296;
        // complex block of 2
        const V t302 = t294 + t291;
        const V t303 = t297 - t287;
        const V t304 = t294 - t291;
        const V t305 = t297 + t287;
        // real block of 2
        const V t306 = t202 + t262;
        // real block of 2
        const V t307 = t190 + t195;
        // real block of 2
        const V t308 = t306 + t307;
        // real block of 2
        const V t309 = t247 + t248;
        // real block of 2
        const V t310 = t221 + t222;
        // real block of 2
        const V t311 = t309 + t310;
        // real block of 2
        const V t312 = t306 - t307;
        // real block of 2
        const V t313 = t309 - t310;
        // real block of 2
        const V t314 = t308 + t311;
        const V t315 = t308 - t311;
        // real block of 2
        const V t316 = t202 - t262;
        // skew block of 4
        const V t317 = t249 - t223;
        const V t318 = c[2] * t317;
        const V t319 = t316 + t318;
        const V t320 = t316 - t318;
        // real block of 2
        const V t321 = t190 - t195;
        // skew block of 4
        const V t322 = t249 + t223;
        const V t323 = c[2] * t322;
        const V t324 = t323 - t321;
        const V t325 = t321 + t323;
        // real block of 16
        const V t326 = t251 - t254;
        const V t327 = t225 - t228;
        // complex block of 2
        const V t328 = t326 + t327;
        const V t329 = t326 - t327;
        // real block of 16
        const V t330 = t255 + t252;
        const V t331 = t229 + t226;
        // complex block of 2
        const V t332 = t330 + t331;
        const V t333 = t331 - t330;
        // real block of 16
        const V t334 = c[2] * t193;
        // complex block of 2
        const V t335 = t203 + t334;
        const V t336 = t203 - t334;
        // real block of 16
        const V t337 = c[2] * t194;
        // complex block of 2
        const V t338 = t263 + t337;
        const V t339 = t337 - t263;
        // complex block of 2
        const V t340 = t335 + t328;
        const V t341 = t338 + t332;
        const V t342 = t335 - t328;
        const V t343 = t332 - t338;
        // complex block of 2
        const V t344 = t336 + t333;
        const V t345 = t339 - t329;
        const V t346 = t336 - t333;
        const V t347 = t339 + t329;
        // complex block of 17, multiplier 2
        const V t348 = t0 + t100;
        io.re(0, t348);
        const V t349 = t2 + t272;
        io.im(0, t349);
        const V t350 = c[17] * t100;
        const V t351 = t0 - t350;
        const V t352 = c[18] * t101;
        // spectrum block of 2
        const V t353 = t351 + t352;
        const V t354 = t351 - t352;
        // complex block of 17, multiplier 2
        const V t355 = c[3] * t299;
        const V t356 = c[4] * t298;
        const V t357 = t356 + t355;
        const V t358 = c[3] * t298;
        const V t359 = c[4] * t299;
        const V t360 = t358 - t359;
        const V t361 = c[5] * t305;
        const V t362 = c[6] * t304;
        const V t363 = t361 - t362;
        const V t364 = c[5] * t304;
        const V t365 = c[6] * t305;
        const V t366 = t365 + t364;
        const V t367 = c[7] * t303;
        const V t368 = c[8] * t302;
        const V t369 = t368 - t367;
        const V t370 = c[7] * t302;
        const V t371 = c[8] * t303;
        const V t372 = t371 + t370;
        const V t373 = c[9] * t301;
        const V t374 = c[10] * t300;
        const V t375 = t374 + t373;
        const V t376 = c[9] * t300;
        const V t377 = c[10] * t301;
        const V t378 = t376 - t377;
        // complex block of 2
        const V t379 = t360 - t378;
        // complex block of 2
        const V t380 = t372 - t366;
        // complex block of 2
        const V t381 = t379 - t380;
        // complex block of 2
        const V t382 = t357 + t375;
        // complex block of 2
        const V t383 = t369 + t363;
        // complex block of 2
        const V t384 = t382 - t383;
        // complex block of 2
        const V t385 = t360 + t378;
        // complex block of 2
        const V t386 = t369 - t363;
        // complex block of 2
        const V t387 = t385 + t386;
        const V t388 = t385 - t386;
        // complex block of 2
        const V t389 = t357 - t375;
        // complex block of 2
        const V t390 = t372 + t366;
        // complex block of 2
        const V t391 = t389 - t390;
        const V t392 = t389 + t390;
        // complex block of 17, multiplier 2
        const V t393 = c[11] * t111;
        const V t394 = c[12] * t105;
        const V t395 = t394 + t393;
        const V t396 = c[13] * t110;
        const V t397 = c[14] * t106;
        const V t398 = t397 - t396;
        // mirrored skew block of 4
        const V t399 = t395 - t398;
        const V t400 = c[2] * t399;
        const V t401 = t395 + t398;
        // complex block of 17, multiplier 2
        const V t402 = c[11] * t105;
        const V t403 = c[12] * t111;
        const V t404 = t402 - t403;
        const V t405 = c[13] * t106;
        const V t406 = c[14] * t110;
        const V t407 = t406 + t405;
        // mirrored skew block of 4
        const V t408 = t404 - t407;
        const V t409 = c[2] * t408;
        const V t410 = t404 + t407;
        // complex block of 17, multiplier 2
        const V t411 = c[15] * t99;
        const V t412 = c[16] * t98;
        const V t413 = t412 + t411;
        const V t414 = c[15] * t98;
        const V t415 = c[16] * t99;
        const V t416 = t415 - t414;
        // spectrum block of 2
        const V t417 = t353 - t413;
        // spectrum block of 2
        const V t418 = t417 + t401;
        const V t419 = t417 - t401;
        // complex block of 2
        const V t420 = t379 + t380;
        const V t421 = t382 + t383;
        // spectrum block of 2
        const V t422 = t418 + t421;
        io.re(2, t422);
        const V t423 = t418 - t421;
        io.re(32, t423);
        // spectrum block of 2
        const V t424 = t419 - t420;
        io.re(8, t424);
        const V t425 = t419 + t420;
        io.re(26, t425);
        // spectrum block of 2
        const V t426 = t353 + t413;
        // spectrum block of 2
        const V t427 = t426 - t410;
        const V t428 = t426 + t410;
        // spectrum block of 16
        const V t429 = t384 + t381;
        const V t430 = c[2] * t429;
        const V t431 = t381 - t384;
        const V t432 = c[2] * t431;
        // spectrum block of 2
        const V t433 = t427 - t432;
        io.re(4, t433);
        const V t434 = t427 + t432;
        io.re(30, t434);
        // spectrum block of 2
        const V t435 = t428 - t430;
        io.re(16, t435);
        const V t436 = t428 + t430;
        io.re(18, t436);
        // spectrum block of 2
        const V t437 = t354 - t416;
        // mirrored skew block of 4
        const V t438 = t400 - t409;
        // spectrum block of 2
        const V t439 = t437 + t438;
        const V t440 = t437 - t438;
        // spectrum block of 16
        const V t441 = c[0] * t387;
        const V t442 = c[1] * t391;
        const V t443 = t442 - t441;
        const V t444 = c[0] * t391;
        const V t445 = c[1] * t387;
        const V t446 = t445 + t444;
        // spectrum block of 2
        const V t447 = t439 + t443;
        io.re(12, t447);
        const V t448 = t439 - t443;
        io.re(22, t448);
        // spectrum block of 2
        const V t449 = t440 - t446;
        io.re(14, t449);
        const V t450 = t440 + t446;
        io.re(20, t450);
        // spectrum block of 2
        const V t451 = t354 + t416;
        // mirrored skew block of 4
        const V t452 = t400 + t409;
        // spectrum block of 2
        const V t453 = t451 - t452;
        const V t454 = t451 + t452;
        // spectrum block of 16
        const V t455 = c[1] * t388;
        const V t456 = c[0] * t392;
        const V t457 = t456 - t455;
        const V t458 = c[1] * t392;
        const V t459 = c[0] * t388;
        const V t460 = t459 + t458;
        // spectrum block of 2
        const V t461 = t453 + t457;
        io.re(24, t461);
        const V t462 = t453 - t457;
        io.re(10, t462);
        // spectrum block of 2
        const V t463 = t454 - t460;
        io.re(28, t463);
        const V t464 = t454 + t460;
        io.re(6, t464);
        // complex block of 17, multiplier 2
        const V t465 = c[17] * t272;
        const V t466 = t2 - t465;
        const V t467 = c[18] * t273;
        // spectrum block of 2
        const V t468 = t466 + t467;
        const V t469 = t466 - t467;
        // complex block of 17, multiplier 2
        const V t470 = c[3] * t127;
        const V t471 = c[4] * t126;
        const V t472 = t471 + t470;
        const V t473 = c[3] * t126;
        const V t474 = c[4] * t127;
        const V t475 = t474 - t473;
        const V t476 = c[5] * t133;
        const V t477 = c[6] * t132;
        const V t478 = t477 - t476;
        const V t479 = c[5] * t132;
        const V t480 = c[6] * t133;
        const V t481 = t480 + t479;
        const V t482 = c[7] * t131;
        const V t483 = c[8] * t130;
        const V t484 = t482 - t483;
        const V t485 = c[7] * t130;
        const V t486 = c[8] * t131;
        const V t487 = t486 + t485;
        const V t488 = c[9] * t129;
        const V t489 = c[10] * t128;
        const V t490 = t489 + t488;
        const V t491 = c[9] * t128;
        const V t492 = c[10] * t129;
        const V t493 = t492 - t491;
        // complex block of 2
        const V t494 = t475 - t493;
        // complex block of 2
        const V t495 = t481 - t487;
        // complex block of 2
        const V t496 = t494 - t495;
        // complex block of 2
        const V t497 = t472 + t490;
        // complex block of 2
        const V t498 = t484 + t478;
        // complex block of 2
        const V t499 = t497 + t498;
        // complex block of 2
        const V t500 = t475 + t493;
        // complex block of 2
        const V t501 = t484 - t478;
        // complex block of 2
        const V t502 = t500 + t501;
        const V t503 = t500 - t501;
        // complex block of 2
        const V t504 = t490 - t472;
        // complex block of 2
        const V t505 = t487 + t481;
        // complex block of 2
        const V t506 = t504 + t505;
        const V t507 = t504 - t505;
        // complex block of 17, multiplier 2
        const V t508 = c[11] * t283;
        const V t509 = c[12] * t277;
        const V t510 = t509 + t508;
        const V t511 = c[13] * t282;
        const V t512 = c[14] * t278;
        const V t513 = t512 - t511;
        // mirrored skew block of 4
        const V t514 = t510 - t513;
        const V t515 = c[2] * t514;
        const V t516 = t510 + t513;
        // complex block of 17, multiplier 2
        const V t517 = c[11] * t277;
        const V t518 = c[12] * t283;
        const V t519 = t517 - t518;
        const V t520 = c[13] * t278;
        const V t521 = c[14] * t282;
        const V t522 = t521 + t520;
        // mirrored skew block of 4
        const V t523 = t519 - t522;
        const V t524 = c[2] * t523;
        const V t525 = t519 + t522;
        // complex block of 17, multiplier 2
        const V t526 = c[15] * t271;
        const V t527 = c[16] * t270;
        const V t528 = t527 + t526;
        const V t529 = c[15] * t270;
        const V t530 = c[16] * t271;
        const V t531 = t530 - t529;
        // spectrum block of 2
        const V t532 = t468 - t528;
        // spectrum block of 2
        const V t533 = t532 + t516;
        const V t534 = t532 - t516;
        // complex block of 2
        const V t535 = t494 + t495;
        const V t536 = t498 - t497;
        // spectrum block of 2
        const V t537 = t533 + t536;
        io.im(2, t537);
        const V t538 = t533 - t536;
        io.im(32, t538);
        // spectrum block of 2
        const V t539 = t534 - t535;
        io.im(8, t539);
        const V t540 = t534 + t535;
        io.im(26, t540);
        // spectrum block of 2
        const V t541 = t468 + t528;
        // spectrum block of 2
        const V t542 = t541 - t525;
        const V t543 = t541 + t525;
        // spectrum block of 16
        const V t544 = t496 - t499;
        const V t545 = c[2] * t544;
        const V t546 = t496 + t499;
        const V t547 = c[2] * t546;
        // spectrum block of 2
        const V t548 = t542 - t547;
        io.im(4, t548);
        const V t549 = t542 + t547;
        io.im(30, t549);
        // spectrum block of 2
        const V t550 = t543 - t545;
        io.im(16, t550);
        const V t551 = t543 + t545;
        io.im(18, t551);
        // spectrum block of 2
        const V t552 = t469 - t531;
        // mirrored skew block of 4
        const V t553 = t515 - t524;
        // spectrum block of 2
        const V t554 = t552 + t553;
        const V t555 = t552 - t553;
        // spectrum block of 16
        const V t556 = c[0] * t502;
        const V t557 = c[1] * t506;
        const V t558 = t557 - t556;
        const V t559 = c[0] * t506;
        const V t560 = c[1] * t502;
        const V t561 = t560 + t559;
        // spectrum block of 2
        const V t562 = t554 + t558;
        io.im(12, t562);
        const V t563 = t554 - t558;
        io.im(22, t563);
        // spectrum block of 2
        const V t564 = t555 - t561;
        io.im(14, t564);
        const V t565 = t555 + t561;
        io.im(20, t565);
        // spectrum block of 2
        const V t566 = t469 + t531;
        // mirrored skew block of 4
        const V t567 = t515 + t524;
        // spectrum block of 2
        const V t568 = t566 - t567;
        const V t569 = t566 + t567;
        // spectrum block of 16
        const V t570 = c[1] * t503;
        const V t571 = c[0] * t507;
        const V t572 = t571 - t570;
        const V t573 = c[1] * t507;
        const V t574 = c[0] * t503;
        const V t575 = t574 + t573;
        // spectrum block of 2
        const V t576 = t568 + t572;
        io.im(24, t576);
        const V t577 = t568 - t572;
        io.im(10, t577);
        // spectrum block of 2
        const V t578 = t569 - t575;
        io.im(28, t578);
        const V t579 = t569 + t575;
        io.im(6, t579);
        // complex block of 17, multiplier 2
        const V t580 = t1 + t142;
        io.re(17, t580);
        const V t581 = t3 + t314;
        io.im(17, t581);
        const V t582 = c[17] * t142;
        const V t583 = t1 - t582;
        const V t584 = c[18] * t143;
        // spectrum block of 2
        const V t585 = t583 + t584;
        const V t586 = t583 - t584;
        // complex block of 17, multiplier 2
        const V t587 = c[3] * t341;
        const V t588 = c[4] * t340;
        const V t589 = t588 + t587;
        const V t590 = c[3] * t340;
        const V t591 = c[4] * t341;
        const V t592 = t590 - t591;
        const V t593 = c[5] * t347;
        const V t594 = c[6] * t346;
        const V t595 = t593 - t594;
        const V t596 = c[5] * t346;
        const V t597 = c[6] * t347;
        const V t598 = t597 + t596;
        const V t599 = c[7] * t345;
        const V t600 = c[8] * t344;
        const V t601 = t600 - t599;
        const V t602 = c[7] * t344;
        const V t603 = c[8] * t345;
        const V t604 = t603 + t602;
        const V t605 = c[9] * t343;
        const V t606 = c[10] * t342;
        const V t607 = t606 + t605;
        const V t608 = c[9] * t342;
        const V t609 = c[10] * t343;
        const V t610 = t608 - t609;
        // complex block of 2
        const V t611 = t592 - t610;
        // complex block of 2
        const V t612 = t604 - t598;
        // complex block of 2
        const V t613 = t611 - t612;
        // complex block of 2
        const V t614 = t589 + t607;
        // complex block of 2
        const V t615 = t601 + t595;
        // complex block of 2
        const V t616 = t614 - t615;
        // complex block of 2
        const V t617 = t592 + t610;
        // complex block of 2
        const V t618 = t601 - t595;
        // complex block of 2
        const V t619 = t617 + t618;
        const V t620 = t617 - t618;
        // complex block of 2
        const V t621 = t589 - t607;
        // complex block of 2
        const V t622 = t604 + t598;
        // complex block of 2
        const V t623 = t621 - t622;
        const V t624 = t621 + t622;
        // complex block of 17, multiplier 2
        const V t625 = c[11] * t153;
        const V t626 = c[12] * t147;
        const V t627 = t626 + t625;
        const V t628 = c[13] * t152;
        const V t629 = c[14] * t148;
        const V t630 = t629 - t628;
        // mirrored skew block of 4
        const V t631 = t627 - t630;
        const V t632 = c[2] * t631;
        const V t633 = t627 + t630;
        // complex block of 17, multiplier 2
        const V t634 = c[11] * t147;
        const V t635 = c[12] * t153;
        const V t636 = t634 - t635;
        const V t637 = c[13] * t148;
        const V t638 = c[14] * t152;
        const V t639 = t638 + t637;
        // mirrored skew block of 4
        const V t640 = t636 - t639;
        const V t641 = c[2] * t640;
        const V t642 = t636 + t639;
        // complex block of 17, multiplier 2
        const V t643 = c[15] * t141;
        const V t644 = c[16] * t140;
        const V t645 = t644 + t643;
        const V t646 = c[15] * t140;
        const V t647 = c[16] * t141;
        const V t648 = t647 - t646;
        // spectrum block of 2
        const V t649 = t585 - t645;
        // spectrum block of 2
        const V t650 = t649 + t633;
        const V t651 = t649 - t633;
        // complex block of 2
        const V t652 = t611 + t612;
        const V t653 = t614 + t615;
        // spectrum block of 2
        const V t654 = t650 + t653;
        io.re(19, t654);
        const V t655 = t650 - t653;
        io.re(15, t655);
        // spectrum block of 2
        const V t656 = t651 - t652;
        io.re(25, t656);
        const V t657 = t651 + t652;
        io.re(9, t657);
        // spectrum block of 2
        const V t658 = t585 + t645;
        // spectrum block of 2
        const V t659 = t658 - t642;
        const V t660 = t658 + t642;
        // spectrum block of 16
        const V t661 = t616 + t613;
        const V t662 = c[2] * t661;
        const V t663 = t613 - t616;
        const V t664 = c[2] * t663;
        // spectrum block of 2
        const V t665 = t659 - t664;
        io.re(21, t665);
        const V t666 = t659 + t664;
        io.re(13, t666);
        // spectrum block of 2
        const V t667 = t660 - t662;
        io.re(33, t667);
        const V t668 = t660 + t662;
        io.re(1, t668);
        // spectrum block of 2
        const V t669 = t586 - t648;
        // mirrored skew block of 4
        const V t670 = t632 - t641;
        // spectrum block of 2
        const V t671 = t669 + t670;
        const V t672 = t669 - t670;
        // spectrum block of 16
        const V t673 = c[0] * t619;
        const V t674 = c[1] * t623;
        const V t675 = t674 - t673;
        const V t676 = c[0] * t623;
        const V t677 = c[1] * t619;
        const V t678 = t677 + t676;
        // spectrum block of 2
        const V t679 = t671 + t675;
        io.re(29, t679);
        const V t680 = t671 - t675;
        io.re(5, t680);
        // spectrum block of 2
        const V t681 = t672 - t678;
        io.re(31, t681);
        const V t682 = t672 + t678;
        io.re(3, t682);
        // spectrum block of 2
        const V t683 = t586 + t648;
        // mirrored skew block of 4
        const V t684 = t632 + t641;
        // spectrum block of 2
        const V t685 = t683 - t684;
        const V t686 = t683 + t684;
        // spectrum block of 16
        const V t687 = c[1] * t620;
        const V t688 = c[0] * t624;
        const V t689 = t688 - t687;
        const V t690 = c[1] * t624;
        const V t691 = c[0] * t620;
        const V t692 = t691 + t690;
        // spectrum block of 2
        const V t693 = t685 + t689;
        io.re(7, t693);
        const V t694 = t685 - t689;
        io.re(27, t694);
        // spectrum block of 2
        const V t695 = t686 - t692;
        io.re(11, t695);
        const V t696 = t686 + t692;
        io.re(23, t696);
        // complex block of 17, multiplier 2
        const V t697 = c[17] * t314;
        const V t698 = t3 - t697;
        const V t699 = c[18] * t315;
        // spectrum block of 2
        const V t700 = t698 + t699;
        const V t701 = t698 - t699;
        // complex block of 17, multiplier 2
        const V t702 = c[3] * t169;
        const V t703 = c[4] * t168;
        const V t704 = t703 + t702;
        const V t705 = c[3] * t168;
        const V t706 = c[4] * t169;
        const V t707 = t706 - t705;
        const V t708 = c[5] * t175;
        const V t709 = c[6] * t174;
        const V t710 = t709 - t708;
        const V t711 = c[5] * t174;
        const V t712 = c[6] * t175;
        const V t713 = t712 + t711;
        const V t714 = c[7] * t173;
        const V t715 = c[8] * t172;
        const V t716 = t714 - t715;
        const V t717 = c[7] * t172;
        const V t718 = c[8] * t173;
        const V t719 = t718 + t717;
        const V t720 = c[9] * t171;
        const V t721 = c[10] * t170;
        const V t722 = t721 + t720;
        const V t723 = c[9] * t170;
        const V t724 = c[10] * t171;
        const V t725 = t724 - t723;
        // complex block of 2
        const V t726 = t707 - t725;
        // complex block of 2
        const V t727 = t713 - t719;
        // complex block of 2
        const V t728 = t726 - t727;
        // complex block of 2
        const V t729 = t704 + t722;
        // complex block of 2
        const V t730 = t716 + t710;
        // complex block of 2
        const V t731 = t729 + t730;
        // complex block of 2
        const V t732 = t707 + t725;
        // complex block of 2
        const V t733 = t716 - t710;
        // complex block of 2
        const V t734 = t732 + t733;
        const V t735 = t732 - t733;
        // complex block of 2
        const V t736 = t722 - t704;
        // complex block of 2
        const V t737 = t719 + t713;
        // complex block of 2
        const V t738 = t736 + t737;
        const V t739 = t736 - t737;
        // complex block of 17, multiplier 2
        const V t740 = c[11] * t325;
        const V t741 = c[12] * t319;
        const V t742 = t741 + t740;
        const V t743 = c[13] * t324;
        const V t744 = c[14] * t320;
        const V t745 = t744 - t743;
        // mirrored skew block of 4
        const V t746 = t742 - t745;
        const V t747 = c[2] * t746;
        const V t748 = t742 + t745;
        // complex block of 17, multiplier 2
        const V t749 = c[11] * t319;
        const V t750 = c[12] * t325;
        const V t751 = t749 - t750;
        const V t752 = c[13] * t320;
        const V t753 = c[14] * t324;
        const V t754 = t753 + t752;
        // mirrored skew block of 4
        const V t755 = t751 - t754;
        const V t756 = c[2] * t755;
        const V t757 = t751 + t754;
        // complex block of 17, multiplier 2
        const V t758 = c[15] * t313;
        const V t759 = c[16] * t312;
        const V t760 = t759 + t758;
        const V t761 = c[15] * t312;
        const V t762 = c[16] * t313;
        const V t763 = t762 - t761;
        // spectrum block of 2
        const V t764 = t700 - t760;
        // spectrum block of 2
        const V t765 = t764 + t748;
        const V t766 = t764 - t748;
        // complex block of 2
        const V t767 = t726 + t727;
        const V t768 = t730 - t729;
        // spectrum block of 2
        const V t769 = t765 + t768;
        io.im(19, t769);
        const V t770 = t765 - t768;
        io.im(15, t770);
        // spectrum block of 2
        const V t771 = t766 - t767;
        io.im(25, t771);
        const V t772 = t766 + t767;
        io.im(9, t772);
        // spectrum block of 2
        const V t773 = t700 + t760;
        // spectrum block of 2
        const V t774 = t773 - t757;
        const V t775 = t773 + t757;
        // spectrum block of 16
        const V t776 = t728 - t731;
        const V t777 = c[2] * t776;
        const V t778 = t728 + t731;
        const V t779 = c[2] * t778;
        // spectrum block of 2
        const V t780 = t774 - t779;
        io.im(21, t780);
        const V t781 = t774 + t779;
        io.im(13, t781);
        // spectrum block of 2
        const V t782 = t775 - t777;
        io.im(33, t782);
        const V t783 = t775 + t777;
        io.im(1, t783);
        // spectrum block of 2
        const V t784 = t701 - t763;
        // mirrored skew block of 4
        const V t785 = t747 - t756;
        // spectrum block of 2
        const V t786 = t784 + t785;
        const V t787 = t784 - t785;
        // spectrum block of 16
        const V t788 = c[0] * t734;
        const V t789 = c[1] * t738;
        const V t790 = t789 - t788;
        const V t791 = c[0] * t738;
        const V t792 = c[1] * t734;
        const V t793 = t792 + t791;
        // spectrum block of 2
        const V t794 = t786 + t790;
        io.im(29, t794);
        const V t795 = t786 - t790;
        io.im(5, t795);
        // spectrum block of 2
        const V t796 = t787 - t793;
        io.im(31, t796);
        const V t797 = t787 + t793;
        io.im(3, t797);
        // spectrum block of 2
        const V t798 = t701 + t763;
        // mirrored skew block of 4
        const V t799 = t747 + t756;
        // spectrum block of 2
        const V t800 = t798 - t799;
        const V t801 = t798 + t799;
        // spectrum block of 16
        const V t802 = c[1] * t735;
        const V t803 = c[0] * t739;
        const V t804 = t803 - t802;
        const V t805 = c[1] * t739;
        const V t806 = c[0] * t735;
        const V t807 = t806 + t805;
        // spectrum block of 2
        const V t808 = t800 + t804;
        io.im(7, t808);
        const V t809 = t800 - t804;
        io.im(27, t809);
        // spectrum block of 2
        const V t810 = t801 - t807;
        io.im(11, t810);
        const V t811 = t801 + t807;
        io.im(23, t811);
    }
};

}  // namespace zulg
