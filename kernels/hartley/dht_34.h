// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 34.
// Hartley transform of 34 points, form I.
// 149 additions, 149 subtractions, 108 multiplications (142 with `scale`); 19 constants; 64 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<34> {
    static constexpr int steps = 440;  // with `scale`
    static constexpr double inverseRoot = 0.17149858514250882;  // 1/sqrt(34), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.9238795325112867,  // c[2]: cos 2 pi 1/16
        0.31717619283272513,  // c[3]: -P[4] of 17
        0.40623178445333147,  // c[4]: -Q[4] of 17
        0.347088927763506,  // c[5]: P[2] of 17
        0.3809911760447736,  // c[6]: Q[2] of 17
        0.5139020806887744,  // c[7]: P[6] of 17
        0.039110758925753275,  // c[8]: -Q[6] of 17
        0.506476062234015,  // c[9]: -Q[1] of 17
        0.09543059459065593,  // c[10]: -P[1] of 17
        0.3101351696520051,  // c[11]: -Q[7] of 17
        0.4116323317536197,  // c[12]: -P[7] of 17
        0.4154752217498508,  // c[13]: Q[3] of 17
        0.3049677689722511,  // c[14]: -P[3] of 17
        0.27255963351038787,  // c[15]: -Q[5] of 17
        0.4374199883186445,  // c[16]: -P[5] of 17
        0.0625,  // c[17]: 1/16
        0.2576941016011038,  // c[18]: beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x33 = io.in(33);
        const V t0 = x1 + x33;
        const V t1 = x1 - x33;
        const V x13 = io.in(13);
        const V x21 = io.in(21);
        const V t2 = x13 + x21;
        const V t3 = x13 - x21;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // skew block of 8
        const V t6 = c[0] * t1;
        const V t7 = c[0] * t3;
        const V t8 = t6 - t7;
        const V t9 = t7 + t6;
        // input stage
        const V x3 = io.in(3);
        const V x31 = io.in(31);
        const V t10 = x3 + x31;
        const V t11 = x3 - x31;
        const V x5 = io.in(5);
        const V x29 = io.in(29);
        const V t12 = x5 + x29;
        const V t13 = x5 - x29;
        const V x7 = io.in(7);
        const V x27 = io.in(27);
        const V t14 = x7 + x27;
        const V t15 = x7 - x27;
        const V x11 = io.in(11);
        const V x23 = io.in(23);
        const V t16 = x11 + x23;
        const V t17 = x11 - x23;
        // real block of 2
        const V t18 = t16 + t14;
        const V t19 = t16 - t14;
        // real block of 2
        const V t20 = t10 - t12;
        // skew block of 4
        const V t21 = t19 - t20;
        const V t22 = t19 + t20;
        // real block of 2
        const V t23 = t10 + t12;
        // skew block of 8
        const V t24 = c[1] * t15;
        const V t25 = c[2] * t17;
        const V t26 = t24 - t25;
        const V t27 = c[1] * t17;
        const V t28 = c[2] * t15;
        const V t29 = t28 + t27;
        const V t30 = c[2] * t13;
        const V t31 = c[1] * t11;
        const V t32 = t31 - t30;
        const V t33 = c[2] * t11;
        const V t34 = c[1] * t13;
        const V t35 = t34 + t33;
        // input stage
        const V x9 = io.in(9);
        const V x25 = io.in(25);
        const V t36 = x9 + x25;
        const V x15 = io.in(15);
        const V x19 = io.in(19);
        const V t37 = x15 + x19;
        const V t38 = x9 - x25;
        const V t39 = x15 - x19;
        // real block of 2
        const V t40 = t37 + t36;
        const V t41 = t37 - t36;
        // real block of 2
        const V t42 = t40 + t4;
        // real block of 2
        const V t43 = t18 + t23;
        // real block of 2
        const V t44 = t42 + t43;
        const V t45 = t42 - t43;
        // spectrum block of 17, multiplier 2
        const V t46 = c[17] * t44;
        const V t47 = c[18] * t45;
        // real block of 2
        const V t48 = t40 - t4;
        // spectrum block of 17, multiplier 2
        const V t49 = c[3] * t48;
        const V t50 = c[4] * t48;
        // real block of 2
        const V t51 = t18 - t23;
        // spectrum block of 17, multiplier 2
        const V t52 = c[4] * t51;
        const V t53 = c[3] * t51;
        // skew block of 4
        const V t54 = c[0] * t21;
        const V t55 = t41 + t54;
        const V t56 = t41 - t54;
        // spectrum block of 17, multiplier 2
        const V t57 = c[5] * t55;
        const V t58 = c[6] * t55;
        const V t59 = c[7] * t56;
        const V t60 = c[8] * t56;
        // skew block of 4
        const V t61 = c[0] * t22;
        const V t62 = t61 - t5;
        const V t63 = t5 + t61;
        // spectrum block of 17, multiplier 2
        const V t64 = c[6] * t63;
        const V t65 = c[5] * t63;
        const V t66 = c[8] * t62;
        const V t67 = c[7] * t62;
        // complex block of 2
        const V t68 = t8 - t39;
        // complex block of 2
        const V t69 = t26 + t32;
        // complex block of 2
        const V t70 = t68 + t69;
        const V t71 = t68 - t69;
        // spectrum block of 17, multiplier 2
        const V t72 = c[9] * t70;
        const V t73 = c[10] * t70;
        const V t74 = c[11] * t71;
        const V t75 = c[12] * t71;
        // complex block of 2
        const V t76 = t38 + t9;
        // complex block of 2
        const V t77 = t29 - t35;
        // complex block of 2
        const V t78 = t77 - t76;
        const V t79 = t76 + t77;
        // spectrum block of 17, multiplier 2
        const V t80 = c[10] * t78;
        const V t81 = c[9] * t78;
        const V t82 = c[12] * t79;
        const V t83 = c[11] * t79;
        // complex block of 2
        const V t84 = t39 + t8;
        // complex block of 2
        const V t85 = t29 + t35;
        // complex block of 2
        const V t86 = t85 - t84;
        const V t87 = t84 + t85;
        // spectrum block of 17, multiplier 2
        const V t88 = c[13] * t87;
        const V t89 = c[14] * t87;
        const V t90 = c[15] * t86;
        const V t91 = c[16] * t86;
        // complex block of 2
        const V t92 = t9 - t38;
        // complex block of 2
        const V t93 = t26 - t32;
        // complex block of 2
        const V t94 = t92 - t93;
        const V t95 = t92 + t93;
        // spectrum block of 17, multiplier 2
        const V t96 = c[14] * t95;
        const V t97 = c[13] * t95;
        const V t98 = c[16] * t94;
        const V t99 = c[15] * t94;
        // input stage
        const V x2 = io.in(2);
        const V x32 = io.in(32);
        const V t100 = x2 + x32;
        const V x8 = io.in(8);
        const V x26 = io.in(26);
        const V t101 = x8 + x26;
        const V t102 = x2 - x32;
        const V t103 = x8 - x26;
        // real block of 2
        const V t104 = t100 + t101;
        const V t105 = t100 - t101;
        // input stage
        const V x4 = io.in(4);
        const V x30 = io.in(30);
        const V t106 = x4 + x30;
        const V t107 = x4 - x30;
        const V x16 = io.in(16);
        const V x18 = io.in(18);
        const V t108 = x16 + x18;
        const V t109 = x16 - x18;
        // real block of 2
        const V t110 = t108 + t106;
        const V t111 = t108 - t106;
        // skew block of 8
        const V t112 = c[0] * t109;
        const V t113 = c[0] * t107;
        const V t114 = t113 - t112;
        const V t115 = t113 + t112;
        // input stage
        const V x6 = io.in(6);
        const V x28 = io.in(28);
        const V t116 = x6 + x28;
        const V t117 = x6 - x28;
        const V x10 = io.in(10);
        const V x24 = io.in(24);
        const V t118 = x10 + x24;
        const V t119 = x10 - x24;
        const V x12 = io.in(12);
        const V x22 = io.in(22);
        const V t120 = x12 + x22;
        const V t121 = x12 - x22;
        const V x14 = io.in(14);
        const V x20 = io.in(20);
        const V t122 = x14 + x20;
        const V t123 = x14 - x20;
        // real block of 2
        const V t124 = t116 + t118;
        const V t125 = t116 - t118;
        // real block of 2
        const V t126 = t122 - t120;
        // skew block of 4
        const V t127 = t125 - t126;
        const V t128 = t125 + t126;
        // real block of 2
        const V t129 = t122 + t120;
        // skew block of 8
        const V t130 = c[1] * t119;
        const V t131 = c[2] * t117;
        const V t132 = t131 - t130;
        const V t133 = c[1] * t117;
        const V t134 = c[2] * t119;
        const V t135 = t134 + t133;
        const V t136 = c[2] * t121;
        const V t137 = c[1] * t123;
        const V t138 = t136 - t137;
        const V t139 = c[2] * t123;
        const V t140 = c[1] * t121;
        const V t141 = t140 + t139;
        // real block of 2
        const V t142 = t104 + t110;
        // real block of 2
        const V t143 = t124 + t129;
        // real block of 2
        const V t144 = t142 + t143;
        const V t145 = t142 - t143;
        // spectrum block of 17, multiplier 2
        const V t146 = c[17] * t144;
        const V t147 = c[18] * t145;
        // real block of 2
        const V t148 = t104 - t110;
        // spectrum block of 17, multiplier 2
        const V t149 = c[3] * t148;
        const V t150 = c[4] * t148;
        // real block of 2
        const V t151 = t124 - t129;
        // spectrum block of 17, multiplier 2
        const V t152 = c[4] * t151;
        const V t153 = c[3] * t151;
        // skew block of 4
        const V t154 = c[0] * t127;
        const V t155 = t105 + t154;
        const V t156 = t105 - t154;
        // spectrum block of 17, multiplier 2
        const V t157 = c[5] * t155;
        const V t158 = c[6] * t155;
        const V t159 = c[7] * t156;
        const V t160 = c[8] * t156;
        // skew block of 4
        const V t161 = c[0] * t128;
        const V t162 = t161 - t111;
        const V t163 = t111 + t161;
        // spectrum block of 17, multiplier 2
        const V t164 = c[6] * t163;
        const V t165 = c[5] * t163;
        const V t166 = c[8] * t162;
        const V t167 = c[7] * t162;
        // complex block of 2
        const V t168 = t102 + t114;
        // complex block of 2
        const V t169 = t132 + t138;
        // complex block of 2
        const V t170 = t168 + t169;
        const V t171 = t168 - t169;
        // spectrum block of 17, multiplier 2
        const V t172 = c[9] * t170;
        const V t173 = c[10] * t170;
        const V t174 = c[11] * t171;
        const V t175 = c[12] * t171;
        // complex block of 2
        const V t176 = t103 + t115;
        // complex block of 2
        const V t177 = t141 - t135;
        // complex block of 2
        const V t178 = t176 + t177;
        const V t179 = t176 - t177;
        // spectrum block of 17, multiplier 2
        const V t180 = c[10] * t178;
        const V t181 = c[9] * t178;
        const V t182 = c[12] * t179;
        const V t183 = c[11] * t179;
        // complex block of 2
        const V t184 = t102 - t114;
        // complex block of 2
        const V t185 = t135 + t141;
        // complex block of 2
        const V t186 = t184 - t185;
        const V t187 = t184 + t185;
        // spectrum block of 17, multiplier 2
        const V t188 = c[13] * t187;
        const V t189 = c[14] * t187;
        const V t190 = c[15] * t186;
        const V t191 = c[16] * t186;
        // complex block of 2
        const V t192 = t103 - t115;
        // complex block of 2
        const V t193 = t132 - t138;
        // complex block of 2
        const V t194 = t192 - t193;
        const V t195 = t192 + t193;
        // spectrum block of 17, multiplier 2
        const V t196 = c[14] * t195;
        const V t197 = c[13] * t195;
        const V t198 = c[16] * t194;
        const V t199 = c[15] * t194;
        const V x0 = io.in(0);
        const V t200 = x0 - t146;
        // spectrum block of 2
        const V t201 = t200 + t147;
        const V t202 = t200 - t147;
        // spectrum block of 17, multiplier 2
        const V t203 = t149 + t152;
        const V t204 = t153 - t150;
        // spectrum block of 2
        const V t205 = t201 - t203;
        const V t206 = t201 + t203;
        // spectrum block of 2
        const V t207 = t202 - t204;
        const V t208 = t202 + t204;
        // spectrum block of 17, multiplier 2
        const V t209 = t180 - t172;
        const V t210 = t174 + t182;
        // complex block of 2
        const V t211 = t209 - t210;
        const V t212 = t209 + t210;
        // spectrum block of 17, multiplier 2
        const V t213 = t181 + t173;
        const V t214 = t183 - t175;
        // complex block of 2
        const V t215 = t213 + t214;
        const V t216 = t214 - t213;
        // spectrum block of 17, multiplier 2
        const V t217 = t188 - t196;
        const V t218 = t198 - t190;
        // complex block of 2
        const V t219 = t218 + t217;
        const V t220 = t218 - t217;
        // spectrum block of 17, multiplier 2
        const V t221 = t197 + t189;
        const V t222 = t199 + t191;
        // complex block of 2
        const V t223 = t221 - t222;
        const V t224 = t222 + t221;
        // complex block of 2
        const V t225 = t223 - t215;
        const V t226 = t211 + t219;
        const V t227 = t215 + t223;
        const V t228 = t211 - t219;
        // spectrum block of 16
        const V t229 = t228 - t227;
        const V t230 = t227 + t228;
        // complex block of 2
        const V t231 = t216 + t220;
        // spectrum block of 16
        const V t232 = c[1] * t231;
        const V t233 = c[2] * t231;
        // complex block of 2
        const V t234 = t212 + t224;
        // spectrum block of 16
        const V t235 = c[2] * t234;
        const V t236 = c[1] * t234;
        // complex block of 2
        const V t237 = t216 - t220;
        // spectrum block of 16
        const V t238 = c[2] * t237;
        const V t239 = c[1] * t237;
        // complex block of 2
        const V t240 = t212 - t224;
        // spectrum block of 16
        const V t241 = c[1] * t240;
        const V t242 = c[2] * t240;
        // spectrum block of 17, multiplier 2
        const V t243 = t157 + t164;
        const V t244 = t159 - t166;
        // mirrored skew block of 4
        const V t245 = t243 - t244;
        // spectrum block of 17, multiplier 2
        const V t246 = t158 - t165;
        const V t247 = t167 + t160;
        // mirrored skew block of 4
        const V t248 = t246 - t247;
        const V t249 = c[0] * t245;
        const V t250 = c[0] * t248;
        const V t251 = t249 - t250;
        const V t252 = t249 + t250;
        const V t253 = t243 + t244;
        const V t254 = t246 + t247;
        // spectrum block of 17, multiplier 2
        const V x17 = io.in(17);
        const V t255 = x17 - t46;
        // spectrum block of 2
        const V t256 = t255 + t47;
        const V t257 = t255 - t47;
        // spectrum block of 17, multiplier 2
        const V t258 = t49 + t52;
        const V t259 = t53 - t50;
        // spectrum block of 2
        const V t260 = t256 - t258;
        const V t261 = t256 + t258;
        // spectrum block of 2
        const V t262 = t257 - t259;
        const V t263 = t257 + t259;
        // spectrum block of 17, multiplier 2
        const V t264 = t80 - t72;
        const V t265 = t82 - t74;
        // complex block of 2
        const V t266 = t264 + t265;
        const V t267 = t264 - t265;
        // spectrum block of 17, multiplier 2
        const V t268 = t81 + t73;
        const V t269 = t83 + t75;
        // complex block of 2
        const V t270 = t269 - t268;
        const V t271 = t268 + t269;
        // spectrum block of 17, multiplier 2
        const V t272 = t88 + t96;
        const V t273 = t98 - t90;
        // complex block of 2
        const V t274 = t273 - t272;
        const V t275 = t273 + t272;
        // spectrum block of 17, multiplier 2
        const V t276 = t89 - t97;
        const V t277 = t99 + t91;
        // complex block of 2
        const V t278 = t277 + t276;
        const V t279 = t276 - t277;
        // complex block of 2
        const V t280 = t270 - t278;
        const V t281 = t266 + t274;
        const V t282 = t270 + t278;
        const V t283 = t266 - t274;
        // spectrum block of 16
        const V t284 = t283 + t282;
        const V t285 = t282 - t283;
        // complex block of 2
        const V t286 = t275 - t271;
        // spectrum block of 16
        const V t287 = c[1] * t286;
        const V t288 = c[2] * t286;
        // complex block of 2
        const V t289 = t267 - t279;
        // spectrum block of 16
        const V t290 = c[2] * t289;
        const V t291 = c[1] * t289;
        // complex block of 2
        const V t292 = t271 + t275;
        // spectrum block of 16
        const V t293 = c[2] * t292;
        const V t294 = c[1] * t292;
        // complex block of 2
        const V t295 = t267 + t279;
        // spectrum block of 16
        const V t296 = c[1] * t295;
        const V t297 = c[2] * t295;
        // spectrum block of 17, multiplier 2
        const V t298 = t57 + t64;
        const V t299 = t59 - t66;
        // mirrored skew block of 4
        const V t300 = t298 - t299;
        // spectrum block of 17, multiplier 2
        const V t301 = t58 - t65;
        const V t302 = t67 + t60;
        // mirrored skew block of 4
        const V t303 = t301 - t302;
        const V t304 = c[0] * t300;
        const V t305 = c[0] * t303;
        const V t306 = t304 - t305;
        const V t307 = t304 + t305;
        const V t308 = t298 + t299;
        const V t309 = t301 + t302;
        // spectrum block of 16
        const V t310 = t235 - t232;
        // spectrum block of 2
        const V t311 = t207 + t251;
        // spectrum block of 2
        const V t312 = t311 + t310;
        const V t313 = t311 - t310;
        // spectrum block of 16
        const V t314 = t290 - t287;
        // spectrum block of 2
        const V t315 = t262 + t306;
        // spectrum block of 2
        const V t316 = t315 + t314;
        const V t317 = t315 - t314;
        // spectrum block of 2
        const V t318 = t312 + t316;
        io.out(22, t318);
        const V t319 = t312 - t316;
        io.out(5, t319);
        // spectrum block of 2
        const V t320 = t313 + t317;
        io.out(12, t320);
        const V t321 = t313 - t317;
        io.out(29, t321);
        // spectrum block of 16
        const V t322 = t233 + t236;
        // spectrum block of 2
        const V t323 = t207 - t251;
        // spectrum block of 2
        const V t324 = t323 - t322;
        const V t325 = t323 + t322;
        // spectrum block of 16
        const V t326 = t288 + t291;
        // spectrum block of 2
        const V t327 = t262 - t306;
        // spectrum block of 2
        const V t328 = t327 - t326;
        const V t329 = t327 + t326;
        // spectrum block of 2
        const V t330 = t324 + t328;
        io.out(20, t330);
        const V t331 = t324 - t328;
        io.out(3, t331);
        // spectrum block of 2
        const V t332 = t325 + t329;
        io.out(14, t332);
        const V t333 = t325 - t329;
        io.out(31, t333);
        // spectrum block of 16
        const V t334 = c[0] * t229;
        // spectrum block of 2
        const V t335 = t206 + t254;
        // spectrum block of 2
        const V t336 = t335 - t334;
        const V t337 = t335 + t334;
        // spectrum block of 16
        const V t338 = c[0] * t284;
        // spectrum block of 2
        const V t339 = t261 + t309;
        // spectrum block of 2
        const V t340 = t339 - t338;
        const V t341 = t339 + t338;
        // spectrum block of 2
        const V t342 = t336 + t340;
        io.out(18, t342);
        const V t343 = t336 - t340;
        io.out(1, t343);
        // spectrum block of 2
        const V t344 = t337 + t341;
        io.out(16, t344);
        const V t345 = t337 - t341;
        io.out(33, t345);
        // spectrum block of 16
        const V t346 = c[0] * t230;
        // spectrum block of 2
        const V t347 = t206 - t254;
        // spectrum block of 2
        const V t348 = t347 + t346;
        const V t349 = t347 - t346;
        // spectrum block of 16
        const V t350 = c[0] * t285;
        // spectrum block of 2
        const V t351 = t261 - t309;
        // spectrum block of 2
        const V t352 = t351 - t350;
        const V t353 = t351 + t350;
        // spectrum block of 2
        const V t354 = t348 + t352;
        io.out(30, t354);
        const V t355 = t348 - t352;
        io.out(13, t355);
        // spectrum block of 2
        const V t356 = t349 + t353;
        io.out(4, t356);
        const V t357 = t349 - t353;
        io.out(21, t357);
        // spectrum block of 16
        const V t358 = t241 - t238;
        // spectrum block of 2
        const V t359 = t208 - t252;
        // spectrum block of 2
        const V t360 = t359 + t358;
        const V t361 = t359 - t358;
        // spectrum block of 16
        const V t362 = t296 + t293;
        // spectrum block of 2
        const V t363 = t263 - t307;
        // spectrum block of 2
        const V t364 = t363 + t362;
        const V t365 = t363 - t362;
        // spectrum block of 2
        const V t366 = t361 + t365;
        io.out(24, t366);
        const V t367 = t361 - t365;
        io.out(7, t367);
        // spectrum block of 2
        const V t368 = t360 + t364;
        io.out(10, t368);
        const V t369 = t360 - t364;
        io.out(27, t369);
        // spectrum block of 16
        const V t370 = t239 + t242;
        // spectrum block of 2
        const V t371 = t208 + t252;
        // spectrum block of 2
        const V t372 = t371 - t370;
        const V t373 = t371 + t370;
        // spectrum block of 16
        const V t374 = t297 - t294;
        // spectrum block of 2
        const V t375 = t263 + t307;
        // spectrum block of 2
        const V t376 = t375 - t374;
        const V t377 = t375 + t374;
        // spectrum block of 2
        const V t378 = t373 + t377;
        io.out(28, t378);
        const V t379 = t373 - t377;
        io.out(11, t379);
        // spectrum block of 2
        const V t380 = t372 + t376;
        io.out(6, t380);
        const V t381 = t372 - t376;
        io.out(23, t381);
        // spectrum block of 2
        const V t382 = t205 + t253;
        // spectrum block of 2
        const V t383 = t382 + t226;
        const V t384 = t382 - t226;
        // spectrum block of 2
        const V t385 = t260 + t308;
        // spectrum block of 2
        const V t386 = t385 + t281;
        const V t387 = t385 - t281;
        // spectrum block of 2
        const V t388 = t383 + t386;
        io.out(32, t388);
        const V t389 = t383 - t386;
        io.out(15, t389);
        // spectrum block of 2
        const V t390 = t384 + t387;
        io.out(2, t390);
        const V t391 = t384 - t387;
        io.out(19, t391);
        // spectrum block of 2
        const V t392 = t205 - t253;
        // spectrum block of 2
        const V t393 = t392 - t225;
        const V t394 = t392 + t225;
        // spectrum block of 2
        const V t395 = t260 - t308;
        // spectrum block of 2
        const V t396 = t395 - t280;
        const V t397 = t395 + t280;
        // spectrum block of 2
        const V t398 = t393 + t396;
        io.out(26, t398);
        const V t399 = t393 - t396;
        io.out(9, t399);
        // spectrum block of 2
        const V t400 = t394 + t397;
        io.out(8, t400);
        const V t401 = t394 - t397;
        io.out(25, t401);
        // spectrum block of 17, multiplier 2
        const V t402 = x0 + t144;
        // spectrum block of 17, multiplier 2
        const V t403 = x17 + t44;
        // spectrum block of 2
        const V t404 = t402 + t403;
        io.out(0, t404);
        const V t405 = t402 - t403;
        io.out(17, t405);
    }
};

}  // namespace zulg
