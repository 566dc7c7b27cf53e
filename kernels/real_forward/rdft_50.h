// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 50.
// Forward DFT of 50 real points, prime-factor 25, 2.
// 193 additions, 161 subtractions, 224 multiplications (274 with `scale`); 18 outputs negated; 16 constants; 58 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<50> {
    static constexpr int steps = 628;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5358267949789967,  // c[4]: cos 2 pi 4/25
        0.8443279255020151,  // c[5]: sin 2 pi 4/25
        0.42577929156507266,  // c[6]: -cos 2 pi 8/25
        0.9048270524660196,  // c[7]: sin 2 pi 8/25
        0.06279051952931337,  // c[8]: cos 2 pi 6/25
        0.9980267284282716,  // c[9]: sin 2 pi 6/25
        0.9921147013144779,  // c[10]: -cos 2 pi 12/25
        0.12533323356430426,  // c[11]: sin 2 pi 12/25
        0.8763066800438636,  // c[12]: cos 2 pi 2/25
        0.48175367410171527,  // c[13]: sin 2 pi 2/25
        0.6374239897486897,  // c[14]: -cos 2 pi 16/25
        0.7705132427757893,  // c[15]: -sin 2 pi 16/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 5, multiplier 2
        const V x10 = io.in(10);
        const V x40 = io.in(40);
        const V t0 = x10 + x40;
        const V t1 = x10 - x40;
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t0;
        const V x30 = io.in(30);
        const V x20 = io.in(20);
        const V t4 = x30 + x20;
        const V t5 = x30 - x20;
        const V t6 = c[0] * t4;
        const V t7 = t0 + t4;
        const V x0 = io.in(0);
        const V t8 = t7 + x0;
        const V t9 = x0 - t2;
        const V t10 = c[1] * t4;
        const V t11 = t9 + t10;
        const V t12 = c[2] * t1;
        const V t13 = c[3] * t5;
        const V t14 = t12 + t13;
        const V t15 = t3 - t6;
        const V t16 = t15 + x0;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t5;
        const V t19 = t17 - t18;
        // real block of 5, multiplier 2
        const V x11 = io.in(11);
        const V x1 = io.in(1);
        const V t20 = x11 + x1;
        const V t21 = x11 - x1;
        const V x41 = io.in(41);
        const V x21 = io.in(21);
        const V t22 = x41 + x21;
        const V t23 = x41 - x21;
        const V t24 = t22 + t20;
        const V t25 = c[0] * t22;
        const V x31 = io.in(31);
        const V t26 = x31 - t25;
        const V t27 = c[1] * t20;
        const V t28 = c[2] * t23;
        const V t29 = c[3] * t21;
        const V t30 = c[1] * t22;
        const V t31 = c[0] * t20;
        const V t32 = t30 - t31;
        const V t33 = c[3] * t23;
        const V t34 = c[2] * t21;
        // real block of 5, multiplier 2
        const V x9 = io.in(9);
        const V x49 = io.in(49);
        const V t35 = x9 + x49;
        const V t36 = x9 - x49;
        const V x39 = io.in(39);
        const V x19 = io.in(19);
        const V t37 = x39 + x19;
        const V t38 = x39 - x19;
        const V t39 = t37 + t35;
        const V t40 = c[0] * t37;
        const V x29 = io.in(29);
        const V t41 = x29 - t40;
        const V t42 = c[1] * t35;
        const V t43 = c[2] * t38;
        const V t44 = c[3] * t36;
        const V t45 = c[1] * t37;
        const V t46 = c[0] * t35;
        const V t47 = t45 - t46;
        const V t48 = c[3] * t38;
        const V t49 = c[2] * t36;
        const V t50 = t39 + x29;
        // real block of 5, multiplier 2
        const V t51 = t24 + x31;
        // real block of 5, multiplier 2
        const V t52 = t51 + t50;
        // real block of 5, multiplier 2
        const V t53 = t41 + t42;
        // real block of 25, multiplier 2
        const V t54 = c[4] * t53;
        const V t55 = c[5] * t53;
        // real block of 5, multiplier 2
        const V t56 = t43 + t44;
        // real block of 25, multiplier 2
        const V t57 = c[5] * t56;
        const V t58 = c[4] * t56;
        const V t59 = t54 - t57;
        const V t60 = t58 + t55;
        // real block of 5, multiplier 2
        const V t61 = t47 + x29;
        // real block of 25, multiplier 2
        const V t62 = c[6] * t61;
        const V t63 = c[7] * t61;
        // real block of 5, multiplier 2
        const V t64 = t48 - t49;
        // real block of 25, multiplier 2
        const V t65 = c[7] * t64;
        const V t66 = c[6] * t64;
        const V t67 = t65 - t62;
        const V t68 = t66 + t63;
        // real block of 5, multiplier 2
        const V t69 = t26 + t27;
        // real block of 25, multiplier 2
        const V t70 = c[8] * t69;
        const V t71 = c[9] * t69;
        // real block of 5, multiplier 2
        const V t72 = t28 + t29;
        // real block of 25, multiplier 2
        const V t73 = c[9] * t72;
        const V t74 = c[8] * t72;
        const V t75 = t70 - t73;
        const V t76 = t74 + t71;
        // real block of 5, multiplier 2
        const V t77 = t32 + x31;
        // real block of 25, multiplier 2
        const V t78 = c[10] * t77;
        const V t79 = c[11] * t77;
        // real block of 5, multiplier 2
        const V t80 = t33 - t34;
        // real block of 25, multiplier 2
        const V t81 = c[11] * t80;
        const V t82 = c[10] * t80;
        const V t83 = t81 - t78;
        const V t84 = t82 + t79;
        // real block of 5, multiplier 2
        const V x12 = io.in(12);
        const V x42 = io.in(42);
        const V t85 = x12 + x42;
        const V t86 = x12 - x42;
        const V x32 = io.in(32);
        const V x22 = io.in(22);
        const V t87 = x32 + x22;
        const V t88 = x32 - x22;
        const V t89 = t85 + t87;
        const V t90 = c[0] * t85;
        const V x2 = io.in(2);
        const V t91 = x2 - t90;
        const V t92 = c[1] * t87;
        const V t93 = c[2] * t86;
        const V t94 = c[3] * t88;
        const V t95 = c[1] * t85;
        const V t96 = c[0] * t87;
        const V t97 = t95 - t96;
        const V t98 = c[3] * t86;
        const V t99 = c[2] * t88;
        // real block of 5, multiplier 2
        const V x18 = io.in(18);
        const V x48 = io.in(48);
        const V t100 = x18 + x48;
        const V t101 = x18 - x48;
        const V x38 = io.in(38);
        const V x28 = io.in(28);
        const V t102 = x38 + x28;
        const V t103 = x38 - x28;
        const V t104 = t100 + t102;
        const V t105 = c[0] * t100;
        const V x8 = io.in(8);
        const V t106 = x8 - t105;
        const V t107 = c[1] * t102;
        const V t108 = c[2] * t101;
        const V t109 = c[3] * t103;
        const V t110 = c[1] * t100;
        const V t111 = c[0] * t102;
        const V t112 = t110 - t111;
        const V t113 = c[3] * t101;
        const V t114 = c[2] * t103;
        // real block of 5, multiplier 2
        const V t115 = t89 + x2;
        // real block of 5, multiplier 2
        const V t116 = t104 + x8;
        // real block of 5, multiplier 2
        const V t117 = t115 + t116;
        // real block of 5, multiplier 2
        const V t118 = t91 + t92;
        // real block of 25, multiplier 2
        const V t119 = c[12] * t118;
        const V t120 = c[13] * t118;
        // real block of 5, multiplier 2
        const V t121 = t93 + t94;
        // real block of 25, multiplier 2
        const V t122 = c[13] * t121;
        const V t123 = c[12] * t121;
        const V t124 = t119 - t122;
        const V t125 = t123 + t120;
        // real block of 5, multiplier 2
        const V t126 = t97 + x2;
        // real block of 25, multiplier 2
        const V t127 = c[4] * t126;
        const V t128 = c[5] * t126;
        // real block of 5, multiplier 2
        const V t129 = t98 - t99;
        // real block of 25, multiplier 2
        const V t130 = c[5] * t129;
        const V t131 = c[4] * t129;
        const V t132 = t127 + t130;
        const V t133 = t131 - t128;
        // real block of 5, multiplier 2
        const V t134 = t106 + t107;
        // real block of 25, multiplier 2
        const V t135 = c[6] * t134;
        const V t136 = c[7] * t134;
        // real block of 5, multiplier 2
        const V t137 = t108 + t109;
        // real block of 25, multiplier 2
        const V t138 = c[7] * t137;
        const V t139 = c[6] * t137;
        const V t140 = t135 + t138;
        const V t141 = t139 - t136;
        // real block of 5, multiplier 2
        const V t142 = t112 + x8;
        // real block of 25, multiplier 2
        const V t143 = c[14] * t142;
        const V t144 = c[15] * t142;
        // real block of 5, multiplier 2
        const V t145 = t113 - t114;
        // real block of 25, multiplier 2
        const V t146 = c[15] * t145;
        const V t147 = c[14] * t145;
        const V t148 = t143 + t146;
        const V t149 = t144 - t147;
        // real block of 5, multiplier 2
        const V x13 = io.in(13);
        const V x3 = io.in(3);
        const V t150 = x13 + x3;
        const V t151 = x13 - x3;
        const V x43 = io.in(43);
        const V x23 = io.in(23);
        const V t152 = x43 + x23;
        const V t153 = x43 - x23;
        const V t154 = t152 + t150;
        const V t155 = c[0] * t152;
        const V x33 = io.in(33);
        const V t156 = x33 - t155;
        const V t157 = c[1] * t150;
        const V t158 = c[2] * t153;
        const V t159 = c[3] * t151;
        const V t160 = c[1] * t152;
        const V t161 = c[0] * t150;
        const V t162 = t160 - t161;
        const V t163 = c[3] * t153;
        const V t164 = c[2] * t151;
        // real block of 5, multiplier 2
        const V x7 = io.in(7);
        const V x47 = io.in(47);
        const V t165 = x7 + x47;
        const V t166 = x7 - x47;
        const V x37 = io.in(37);
        const V x17 = io.in(17);
        const V t167 = x37 + x17;
        const V t168 = x37 - x17;
        const V t169 = t167 + t165;
        const V t170 = c[0] * t167;
        const V x27 = io.in(27);
        const V t171 = x27 - t170;
        const V t172 = c[1] * t165;
        const V t173 = c[2] * t168;
        const V t174 = c[3] * t166;
        const V t175 = c[1] * t167;
        const V t176 = c[0] * t165;
        const V t177 = t175 - t176;
        const V t178 = c[3] * t168;
        const V t179 = c[2] * t166;
        const V t180 = t169 + x27;
        // real block of 5, multiplier 2
        const V t181 = t154 + x33;
        // real block of 5, multiplier 2
        const V t182 = t180 + t181;
        // real block of 5, multiplier 2
        const V t183 = t171 + t172;
        // real block of 25, multiplier 2
        const V t184 = c[12] * t183;
        const V t185 = c[13] * t183;
        // real block of 5, multiplier 2
        const V t186 = t173 + t174;
        // real block of 25, multiplier 2
        const V t187 = c[13] * t186;
        const V t188 = c[12] * t186;
        const V t189 = t184 - t187;
        const V t190 = t188 + t185;
        // real block of 5, multiplier 2
        const V t191 = t177 + x27;
        // real block of 25, multiplier 2
        const V t192 = c[4] * t191;
        const V t193 = c[5] * t191;
        // real block of 5, multiplier 2
        const V t194 = t178 - t179;
        // real block of 25, multiplier 2
        const V t195 = c[5] * t194;
        const V t196 = c[4] * t194;
        const V t197 = t192 + t195;
        const V t198 = t196 - t193;
        // real block of 5, multiplier 2
        const V t199 = t156 + t157;
        // real block of 25, multiplier 2
        const V t200 = c[6] * t199;
        const V t201 = c[7] * t199;
        // real block of 5, multiplier 2
        const V t202 = t158 + t159;
        // real block of 25, multiplier 2
        const V t203 = c[7] * t202;
        const V t204 = c[6] * t202;
        const V t205 = t200 + t203;
        const V t206 = t204 - t201;
        // real block of 5, multiplier 2
        const V t207 = t162 + x33;
        // real block of 25, multiplier 2
        const V t208 = c[14] * t207;
        const V t209 = c[15] * t207;
        // real block of 5, multiplier 2
        const V t210 = t163 - t164;
        // real block of 25, multiplier 2
        const V t211 = c[15] * t210;
        const V t212 = c[14] * t210;
        const V t213 = t208 + t211;
        const V t214 = t209 - t212;
        // real block of 5, multiplier 2
        const V x14 = io.in(14);
        const V x44 = io.in(44);
        const V t215 = x14 + x44;
        const V t216 = x14 - x44;
        const V x34 = io.in(34);
        const V x24 = io.in(24);
        const V t217 = x34 + x24;
        const V t218 = x34 - x24;
        const V t219 = t215 + t217;
        const V t220 = c[0] * t215;
        const V x4 = io.in(4);
        const V t221 = x4 - t220;
        const V t222 = c[1] * t217;
        const V t223 = c[2] * t216;
        const V t224 = c[3] * t218;
        const V t225 = c[1] * t215;
        const V t226 = c[0] * t217;
        const V t227 = t225 - t226;
        const V t228 = c[3] * t216;
        const V t229 = c[2] * t218;
        // real block of 5, multiplier 2
        const V x16 = io.in(16);
        const V x46 = io.in(46);
        const V t230 = x16 + x46;
        const V t231 = x16 - x46;
        const V x36 = io.in(36);
        const V x26 = io.in(26);
        const V t232 = x36 + x26;
        const V t233 = x36 - x26;
        const V t234 = t230 + t232;
        const V t235 = c[0] * t230;
        const V x6 = io.in(6);
        const V t236 = x6 - t235;
        const V t237 = c[1] * t232;
        const V t238 = c[2] * t231;
        const V t239 = c[3] * t233;
        const V t240 = c[1] * t230;
        const V t241 = c[0] * t232;
        const V t242 = t240 - t241;
        const V t243 = c[3] * t231;
        const V t244 = c[2] * t233;
        // real block of 5, multiplier 2
        const V t245 = t219 + x4;
        // real block of 5, multiplier 2
        const V t246 = t234 + x6;
        // real block of 5, multiplier 2
        const V t247 = t246 + t245;
        // real block of 5, multiplier 2
        const V t248 = t221 + t222;
        // real block of 25, multiplier 2
        const V t249 = c[4] * t248;
        const V t250 = c[5] * t248;
        // real block of 5, multiplier 2
        const V t251 = t223 + t224;
        // real block of 25, multiplier 2
        const V t252 = c[5] * t251;
        const V t253 = c[4] * t251;
        const V t254 = t249 - t252;
        const V t255 = t253 + t250;
        // real block of 5, multiplier 2
        const V t256 = t227 + x4;
        // real block of 25, multiplier 2
        const V t257 = c[6] * t256;
        const V t258 = c[7] * t256;
        // real block of 5, multiplier 2
        const V t259 = t228 - t229;
        // real block of 25, multiplier 2
        const V t260 = c[7] * t259;
        const V t261 = c[6] * t259;
        const V t262 = t260 - t257;
        const V t263 = t261 + t258;
        // real block of 5, multiplier 2
        const V t264 = t236 + t237;
        // real block of 25, multiplier 2
        const V t265 = c[8] * t264;
        const V t266 = c[9] * t264;
        // real block of 5, multiplier 2
        const V t267 = t238 + t239;
        // real block of 25, multiplier 2
        const V t268 = c[9] * t267;
        const V t269 = c[8] * t267;
        const V t270 = t265 - t268;
        const V t271 = t269 + t266;
        // real block of 5, multiplier 2
        const V t272 = t242 + x6;
        // real block of 25, multiplier 2
        const V t273 = c[10] * t272;
        const V t274 = c[11] * t272;
        // real block of 5, multiplier 2
        const V t275 = t243 - t244;
        // real block of 25, multiplier 2
        const V t276 = c[11] * t275;
        const V t277 = c[10] * t275;
        const V t278 = t276 - t273;
        const V t279 = t277 + t274;
        // real block of 5, multiplier 2
        const V x5 = io.in(5);
        const V x45 = io.in(45);
        const V t280 = x5 + x45;
        const V t281 = x5 - x45;
        const V t282 = c[0] * t280;
        const V x35 = io.in(35);
        const V x15 = io.in(15);
        const V t283 = x35 + x15;
        const V t284 = x35 - x15;
        const V t285 = c[0] * t283;
        const V t286 = c[1] * t283;
        const V t287 = t283 + t280;
        const V x25 = io.in(25);
        const V t288 = t287 + x25;
        const V t289 = x25 - t285;
        const V t290 = c[1] * t280;
        const V t291 = t289 + t290;
        const V t292 = c[2] * t284;
        const V t293 = c[3] * t281;
        const V t294 = t292 + t293;
        const V t295 = t286 - t282;
        const V t296 = t295 + x25;
        const V t297 = c[3] * t284;
        const V t298 = c[2] * t281;
        const V t299 = t297 - t298;
        // real block of 5, multiplier 2
        const V t300 = t115 - t116;
        const V t301 = c[2] * t300;
        const V t302 = c[3] * t300;
        const V t303 = t246 - t245;
        const V t304 = c[3] * t303;
        const V t305 = c[2] * t303;
        // real block of 5, multiplier 2
        const V t306 = t180 - t181;
        const V t307 = c[2] * t306;
        const V t308 = c[3] * t306;
        const V t309 = t51 - t50;
        const V t310 = c[3] * t309;
        const V t311 = c[2] * t309;
        // real block of 5, multiplier 2
        const V t312 = t301 + t304;
        // real block of 5, multiplier 2
        const V t313 = t307 + t310;
        // complex block of 2
        const V t314 = t312 + t313;
        io.minusIm(10, t314);
        const V t315 = t313 - t312;
        io.minusIm(15, t315);
        // real block of 5, multiplier 2
        const V t316 = t302 - t305;
        // real block of 5, multiplier 2
        const V t317 = t308 - t311;
        // complex block of 2
        const V t318 = t316 + t317;
        io.im(20, t318);
        const V t319 = t316 - t317;
        io.minusIm(5, t319);
        // real block of 5, multiplier 2
        const V t320 = t117 + t247;
        const V t321 = t320 + t8;
        // real block of 5, multiplier 2
        const V t322 = t182 + t52;
        const V t323 = t322 + t288;
        // real block of 2
        const V t324 = t321 + t323;
        io.re(0, t324);
        const V t325 = t321 - t323;
        io.re(25, t325);
        // real block of 5, multiplier 2
        const V t326 = c[0] * t117;
        const V t327 = t8 - t326;
        const V t328 = c[1] * t247;
        // real block of 5, multiplier 2
        const V t329 = c[0] * t182;
        const V t330 = t288 - t329;
        const V t331 = c[1] * t52;
        // real block of 5, multiplier 2
        const V t332 = t327 + t328;
        // real block of 5, multiplier 2
        const V t333 = t330 + t331;
        // complex block of 2
        const V t334 = t332 + t333;
        io.re(10, t334);
        const V t335 = t332 - t333;
        io.re(15, t335);
        // real block of 5, multiplier 2
        const V t336 = c[1] * t117;
        const V t337 = c[0] * t247;
        const V t338 = t336 - t337;
        // real block of 5, multiplier 2
        const V t339 = c[1] * t182;
        const V t340 = c[0] * t52;
        const V t341 = t339 - t340;
        // real block of 5, multiplier 2
        const V t342 = t338 + t8;
        // real block of 5, multiplier 2
        const V t343 = t341 + t288;
        // complex block of 2
        const V t344 = t342 + t343;
        io.re(20, t344);
        const V t345 = t342 - t343;
        io.re(5, t345);
        // complex block of 5, multiplier 2
        const V t346 = t124 - t140;
        const V t347 = c[1] * t346;
        const V t348 = c[0] * t346;
        const V t349 = t270 + t254;
        const V t350 = c[0] * t349;
        const V t351 = t346 + t349;
        const V t352 = t347 - t350;
        const V t353 = t11 - t348;
        const V t354 = c[1] * t349;
        const V t355 = t125 + t141;
        const V t356 = c[3] * t355;
        const V t357 = c[2] * t355;
        const V t358 = t255 - t271;
        const V t359 = c[2] * t358;
        const V t360 = c[3] * t358;
        const V t361 = t356 + t359;
        const V t362 = t360 - t357;
        // complex block of 5, multiplier 2
        const V t363 = t189 - t205;
        const V t364 = c[1] * t363;
        const V t365 = c[0] * t363;
        const V t366 = t75 + t59;
        const V t367 = c[0] * t366;
        const V t368 = t363 + t366;
        const V t369 = t364 - t367;
        const V t370 = t291 - t365;
        const V t371 = c[1] * t366;
        const V t372 = t190 + t206;
        const V t373 = c[3] * t372;
        const V t374 = c[2] * t372;
        const V t375 = t60 - t76;
        const V t376 = c[2] * t375;
        const V t377 = c[3] * t375;
        const V t378 = t373 + t376;
        const V t379 = t377 - t374;
        // complex block of 5, multiplier 2
        const V t380 = t351 + t11;
        // complex block of 5, multiplier 2
        const V t381 = t368 + t291;
        // complex block of 2
        const V t382 = t380 + t381;
        io.re(2, t382);
        const V t383 = t380 - t381;
        io.re(23, t383);
        // complex block of 5, multiplier 2
        const V t384 = t352 + t11;
        const V t385 = t384 - t361;
        const V t386 = t384 + t361;
        // complex block of 5, multiplier 2
        const V t387 = t369 + t291;
        const V t388 = t387 - t378;
        const V t389 = t387 + t378;
        // complex block of 2
        const V t390 = t385 + t388;
        io.re(18, t390);
        const V t391 = t385 - t388;
        io.re(7, t391);
        // complex block of 2
        const V t392 = t386 + t389;
        io.re(22, t392);
        const V t393 = t386 - t389;
        io.re(3, t393);
        // complex block of 5, multiplier 2
        const V t394 = t353 + t354;
        const V t395 = t394 + t362;
        const V t396 = t394 - t362;
        // complex block of 5, multiplier 2
        const V t397 = t370 + t371;
        const V t398 = t397 + t379;
        const V t399 = t397 - t379;
        // complex block of 2
        const V t400 = t396 + t399;
        io.re(8, t400);
        const V t401 = t396 - t399;
        io.re(17, t401);
        // complex block of 2
        const V t402 = t395 + t398;
        io.re(12, t402);
        const V t403 = t395 - t398;
        io.re(13, t403);
        // complex block of 5, multiplier 2
        const V t404 = t141 - t125;
        const V t405 = c[1] * t404;
        const V t406 = c[0] * t404;
        const V t407 = t271 + t255;
        const V t408 = c[0] * t407;
        const V t409 = t404 - t407;
        const V t410 = t405 + t408;
        const V t411 = t14 + t406;
        const V t412 = c[1] * t407;
        const V t413 = t124 + t140;
        const V t414 = c[3] * t413;
        const V t415 = c[2] * t413;
        const V t416 = t270 - t254;
        const V t417 = c[2] * t416;
        const V t418 = c[3] * t416;
        const V t419 = t414 - t417;
        const V t420 = t415 + t418;
        // complex block of 5, multiplier 2
        const V t421 = t206 - t190;
        const V t422 = c[1] * t421;
        const V t423 = c[0] * t421;
        const V t424 = t76 + t60;
        const V t425 = c[0] * t424;
        const V t426 = t421 - t424;
        const V t427 = t422 + t425;
        const V t428 = t294 + t423;
        const V t429 = c[1] * t424;
        const V t430 = t189 + t205;
        const V t431 = c[3] * t430;
        const V t432 = c[2] * t430;
        const V t433 = t75 - t59;
        const V t434 = c[2] * t433;
        const V t435 = c[3] * t433;
        const V t436 = t431 - t434;
        const V t437 = t432 + t435;
        // complex block of 5, multiplier 2
        const V t438 = t409 - t14;
        // complex block of 5, multiplier 2
        const V t439 = t426 - t294;
        // complex block of 2
        const V t440 = t438 + t439;
        io.im(2, t440);
        const V t441 = t438 - t439;
        io.minusIm(23, t441);
        // complex block of 5, multiplier 2
        const V t442 = t410 - t14;
        const V t443 = t442 - t419;
        const V t444 = t442 + t419;
        // complex block of 5, multiplier 2
        const V t445 = t427 - t294;
        const V t446 = t445 - t436;
        const V t447 = t445 + t436;
        // complex block of 2
        const V t448 = t443 + t446;
        io.minusIm(18, t448);
        const V t449 = t446 - t443;
        io.minusIm(7, t449);
        // complex block of 2
        const V t450 = t444 + t447;
        io.im(22, t450);
        const V t451 = t444 - t447;
        io.minusIm(3, t451);
        // complex block of 5, multiplier 2
        const V t452 = t411 + t412;
        const V t453 = t452 + t420;
        const V t454 = t420 - t452;
        // complex block of 5, multiplier 2
        const V t455 = t428 + t429;
        const V t456 = t455 + t437;
        const V t457 = t437 - t455;
        // complex block of 2
        const V t458 = t454 + t457;
        io.minusIm(8, t458);
        const V t459 = t457 - t454;
        io.minusIm(17, t459);
        // complex block of 2
        const V t460 = t453 + t456;
        io.minusIm(12, t460);
        const V t461 = t456 - t453;
        io.minusIm(13, t461);
        // complex block of 5, multiplier 2
        const V t462 = t132 - t148;
        const V t463 = c[1] * t462;
        const V t464 = c[0] * t462;
        const V t465 = t278 + t262;
        const V t466 = c[0] * t465;
        const V t467 = t462 + t465;
        const V t468 = t463 - t466;
        const V t469 = t16 - t464;
        const V t470 = c[1] * t465;
        const V t471 = t133 - t149;
        const V t472 = c[3] * t471;
        const V t473 = c[2] * t471;
        const V t474 = t263 - t279;
        const V t475 = c[2] * t474;
        const V t476 = c[3] * t474;
        const V t477 = t472 - t475;
        const V t478 = t473 + t476;
        // complex block of 5, multiplier 2
        const V t479 = t197 - t213;
        const V t480 = c[1] * t479;
        const V t481 = c[0] * t479;
        const V t482 = t83 + t67;
        const V t483 = c[0] * t482;
        const V t484 = t479 + t482;
        const V t485 = t480 - t483;
        const V t486 = t296 - t481;
        const V t487 = c[1] * t482;
        const V t488 = t198 - t214;
        const V t489 = c[3] * t488;
        const V t490 = c[2] * t488;
        const V t491 = t68 - t84;
        const V t492 = c[2] * t491;
        const V t493 = c[3] * t491;
        const V t494 = t489 - t492;
        const V t495 = t490 + t493;
        // complex block of 5, multiplier 2
        const V t496 = t467 + t16;
        // complex block of 5, multiplier 2
        const V t497 = t484 + t296;
        // complex block of 2
        const V t498 = t496 + t497;
        io.re(4, t498);
        const V t499 = t496 - t497;
        io.re(21, t499);
        // complex block of 5, multiplier 2
        const V t500 = t468 + t16;
        const V t501 = t500 + t477;
        const V t502 = t500 - t477;
        // complex block of 5, multiplier 2
        const V t503 = t485 + t296;
        const V t504 = t503 + t494;
        const V t505 = t503 - t494;
        // complex block of 2
        const V t506 = t501 + t504;
        io.re(16, t506);
        const V t507 = t501 - t504;
        io.re(9, t507);
        // complex block of 2
        const V t508 = t502 + t505;
        io.re(24, t508);
        const V t509 = t502 - t505;
        io.re(1, t509);
        // complex block of 5, multiplier 2
        const V t510 = t469 + t470;
        const V t511 = t510 + t478;
        const V t512 = t510 - t478;
        // complex block of 5, multiplier 2
        const V t513 = t486 + t487;
        const V t514 = t513 + t495;
        const V t515 = t513 - t495;
        // complex block of 2
        const V t516 = t512 + t515;
        io.re(6, t516);
        const V t517 = t512 - t515;
        io.re(19, t517);
        // complex block of 2
        const V t518 = t511 + t514;
        io.re(14, t518);
        const V t519 = t511 - t514;
        io.re(11, t519);
        // complex block of 5, multiplier 2
        const V t520 = t133 + t149;
        const V t521 = c[1] * t520;
        const V t522 = c[0] * t520;
        const V t523 = t279 + t263;
        const V t524 = c[0] * t523;
        const V t525 = t520 - t523;
        const V t526 = t521 + t524;
        const V t527 = t19 - t522;
        const V t528 = c[1] * t523;
        const V t529 = t132 + t148;
        const V t530 = c[3] * t529;
        const V t531 = c[2] * t529;
        const V t532 = t278 - t262;
        const V t533 = c[2] * t532;
        const V t534 = c[3] * t532;
        const V t535 = t530 - t533;
        const V t536 = t531 + t534;
        // complex block of 5, multiplier 2
        const V t537 = t198 + t214;
        const V t538 = c[1] * t537;
        const V t539 = c[0] * t537;
        const V t540 = t84 + t68;
        const V t541 = c[0] * t540;
        const V t542 = t537 - t540;
        const V t543 = t538 + t541;
        const V t544 = t299 - t539;
        const V t545 = c[1] * t540;
        const V t546 = t197 + t213;
        const V t547 = c[3] * t546;
        const V t548 = c[2] * t546;
        const V t549 = t83 - t67;
        const V t550 = c[2] * t549;
        const V t551 = c[3] * t549;
        const V t552 = t547 - t550;
        const V t553 = t548 + t551;
        // complex block of 5, multiplier 2
        const V t554 = t525 + t19;
        // complex block of 5, multiplier 2
        const V t555 = t542 + t299;
        // complex block of 2
        const V t556 = t554 + t555;
        io.im(4, t556);
        const V t557 = t554 - t555;
        io.minusIm(21, t557);
        // complex block of 5, multiplier 2
        const V t558 = t526 + t19;
        const V t559 = t558 - t535;
        const V t560 = t558 + t535;
        // complex block of 5, multiplier 2
        const V t561 = t543 + t299;
        const V t562 = t561 - t552;
        const V t563 = t561 + t552;
        // complex block of 2
        const V t564 = t559 + t562;
        io.minusIm(16, t564);
        const V t565 = t562 - t559;
        io.minusIm(9, t565);
        // complex block of 2
        const V t566 = t560 + t563;
        io.im(24, t566);
        const V t567 = t560 - t563;
        io.minusIm(1, t567);
        // complex block of 5, multiplier 2
        const V t568 = t527 - t528;
        const V t569 = t568 - t536;
        const V t570 = t568 + t536;
        // complex block of 5, multiplier 2
        const V t571 = t544 - t545;
        const V t572 = t571 - t553;
        const V t573 = t571 + t553;
        // complex block of 2
        const V t574 = t570 + t573;
        io.minusIm(6, t574);
        const V t575 = t573 - t570;
        io.minusIm(19, t575);
        // complex block of 2
        const V t576 = t569 + t572;
        io.im(14, t576);
        const V t577 = t569 - t572;
        io.minusIm(11, t577);
    }
};

}  // namespace zulg
