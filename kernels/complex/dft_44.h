// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 44.
// Complex DFT of 44 points, prime-factor, order 11, 4.
// 424 additions, 376 subtractions, 400 multiplications (488 with `scale`); 14 constants; 129 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<44> {
    static constexpr int steps = 1288;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.6355539395974166,  // c[4]: -Q[2] of 11
        0.6617220446385197,  // c[5]: -P[3] of 11
        0.18992416871531467,  // c[6]: -P[2] of 11
        0.046086176229070706,  // c[7]: Q[3] of 11
        0.5539145271232301,  // c[8]: Q[4] of 11
        0.5450828424811972,  // c[9]: -P[1] of 11
        0.3780009190896476,  // c[10]: Q[1] of 11
        0.3649365652299704,  // c[11]: -P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 5, multiplier 2
        const V x16r = io.re(16);
        const V x12r = io.re(12);
        const V t0 = x16r + x12r;
        const V t1 = x16r - x12r;
        const V x36r = io.re(36);
        const V x20r = io.re(20);
        const V t2 = x36r + x20r;
        const V t3 = x36r - x20r;
        const V t4 = t0 + t2;
        const V x4r = io.re(4);
        const V t5 = t4 + x4r;
        const V t6 = c[0] * t0;
        const V t7 = x4r - t6;
        const V t8 = c[1] * t2;
        const V t9 = c[2] * t1;
        const V t10 = c[3] * t3;
        const V t11 = t9 + t10;
        const V t12 = c[1] * t0;
        const V t13 = c[0] * t2;
        const V t14 = t12 - t13;
        const V t15 = c[3] * t1;
        const V t16 = c[2] * t3;
        const V t17 = t15 - t16;
        // real block of 5, multiplier 2
        const V x8r = io.re(8);
        const V x24r = io.re(24);
        const V t18 = x8r + x24r;
        const V t19 = x8r - x24r;
        const V x28r = io.re(28);
        const V x32r = io.re(32);
        const V t20 = x28r + x32r;
        const V t21 = x28r - x32r;
        const V t22 = t20 + t18;
        const V x40r = io.re(40);
        const V t23 = t22 + x40r;
        const V t24 = c[0] * t20;
        const V t25 = x40r - t24;
        const V t26 = c[1] * t18;
        const V t27 = c[2] * t21;
        const V t28 = c[3] * t19;
        const V t29 = t27 + t28;
        const V t30 = c[1] * t20;
        const V t31 = c[0] * t18;
        const V t32 = t30 - t31;
        const V t33 = c[3] * t21;
        const V t34 = c[2] * t19;
        const V t35 = t33 - t34;
        // real block of 5, multiplier 2
        const V t36 = t7 + t8;
        // real block of 5, multiplier 2
        const V t37 = t25 + t26;
        // complex block of 2
        const V t38 = t36 + t37;
        const V t39 = t36 - t37;
        const V t40 = t11 + t29;
        // complex block of 11, multiplier 4
        const V t41 = c[4] * t40;
        // complex block of 2
        const V t42 = t29 - t11;
        // complex block of 11, multiplier 4
        const V t43 = c[5] * t42;
        const V t44 = c[6] * t38;
        const V t45 = t44 + t41;
        const V t46 = c[4] * t38;
        const V t47 = c[6] * t40;
        const V t48 = c[7] * t39;
        const V t49 = t43 - t48;
        const V t50 = c[5] * t39;
        const V t51 = c[7] * t42;
        // real block of 5, multiplier 2
        const V t52 = t14 + x4r;
        // real block of 5, multiplier 2
        const V t53 = t32 + x40r;
        // complex block of 2
        const V t54 = t52 + t53;
        const V t55 = t52 - t53;
        const V t56 = t17 + t35;
        // complex block of 11, multiplier 4
        const V t57 = c[8] * t56;
        // complex block of 2
        const V t58 = t17 - t35;
        // complex block of 11, multiplier 4
        const V t59 = c[9] * t58;
        const V t60 = c[10] * t55;
        const V t61 = t59 - t60;
        const V t62 = c[9] * t55;
        const V t63 = c[10] * t58;
        const V t64 = c[11] * t54;
        const V t65 = t64 + t57;
        const V t66 = c[8] * t54;
        const V t67 = c[11] * t56;
        // real block of 2
        const V t68 = t5 + t23;
        // complex block of 11, multiplier 4
        const V t69 = c[12] * t68;
        const V x0r = io.re(0);
        const V t70 = x0r - t69;
        // real block of 2
        const V t71 = t5 - t23;
        // complex block of 11, multiplier 4
        const V t72 = c[13] * t71;
        // real block of 5, multiplier 2
        const V x16i = io.im(16);
        const V x12i = io.im(12);
        const V t73 = x16i + x12i;
        const V t74 = x16i - x12i;
        const V x36i = io.im(36);
        const V x20i = io.im(20);
        const V t75 = x36i + x20i;
        const V t76 = x36i - x20i;
        const V t77 = t73 + t75;
        const V x4i = io.im(4);
        const V t78 = t77 + x4i;
        const V t79 = c[0] * t73;
        const V t80 = x4i - t79;
        const V t81 = c[1] * t75;
        const V t82 = c[2] * t74;
        const V t83 = c[3] * t76;
        const V t84 = t82 + t83;
        const V t85 = c[1] * t73;
        const V t86 = c[0] * t75;
        const V t87 = t85 - t86;
        const V t88 = c[3] * t74;
        const V t89 = c[2] * t76;
        const V t90 = t88 - t89;
        // real block of 5, multiplier 2
        const V x8i = io.im(8);
        const V x24i = io.im(24);
        const V t91 = x8i + x24i;
        const V t92 = x8i - x24i;
        const V x28i = io.im(28);
        const V x32i = io.im(32);
        const V t93 = x28i + x32i;
        const V t94 = x28i - x32i;
        const V t95 = t93 + t91;
        const V x40i = io.im(40);
        const V t96 = t95 + x40i;
        const V t97 = c[0] * t93;
        const V t98 = x40i - t97;
        const V t99 = c[1] * t91;
        const V t100 = c[2] * t94;
        const V t101 = c[3] * t92;
        const V t102 = t100 + t101;
        const V t103 = c[1] * t93;
        const V t104 = c[0] * t91;
        const V t105 = t103 - t104;
        const V t106 = c[3] * t94;
        const V t107 = c[2] * t92;
        const V t108 = t106 - t107;
        // real block of 5, multiplier 2
        const V t109 = t80 + t81;
        // real block of 5, multiplier 2
        const V t110 = t98 + t99;
        // complex block of 2
        const V t111 = t109 + t110;
        const V t112 = t109 - t110;
        const V t113 = t84 + t102;
        // complex block of 11, multiplier 4
        const V t114 = c[4] * t113;
        // complex block of 2
        const V t115 = t102 - t84;
        // complex block of 11, multiplier 4
        const V t116 = c[5] * t115;
        const V t117 = c[6] * t111;
        const V t118 = t117 + t114;
        const V t119 = c[4] * t111;
        const V t120 = c[6] * t113;
        const V t121 = c[7] * t112;
        const V t122 = t121 - t116;
        const V t123 = c[5] * t112;
        const V t124 = c[7] * t115;
        // real block of 5, multiplier 2
        const V t125 = t87 + x4i;
        // real block of 5, multiplier 2
        const V t126 = t105 + x40i;
        // complex block of 2
        const V t127 = t125 + t126;
        const V t128 = t125 - t126;
        const V t129 = t90 + t108;
        // complex block of 11, multiplier 4
        const V t130 = c[8] * t129;
        // complex block of 2
        const V t131 = t90 - t108;
        // complex block of 11, multiplier 4
        const V t132 = c[9] * t131;
        const V t133 = c[10] * t128;
        const V t134 = t133 - t132;
        const V t135 = c[9] * t128;
        const V t136 = c[10] * t131;
        const V t137 = c[11] * t127;
        const V t138 = t137 + t130;
        const V t139 = c[8] * t127;
        const V t140 = c[11] * t129;
        // real block of 2
        const V t141 = t78 + t96;
        // complex block of 11, multiplier 4
        const V t142 = c[12] * t141;
        const V x0i = io.im(0);
        const V t143 = x0i - t142;
        // real block of 2
        const V t144 = t78 - t96;
        // complex block of 11, multiplier 4
        const V t145 = c[13] * t144;
        // real block of 5, multiplier 2
        const V x5r = io.re(5);
        const V x1r = io.re(1);
        const V t146 = x5r + x1r;
        const V t147 = x5r - x1r;
        const V x25r = io.re(25);
        const V x9r = io.re(9);
        const V t148 = x25r + x9r;
        const V t149 = x25r - x9r;
        const V t150 = t146 + t148;
        const V x37r = io.re(37);
        const V t151 = t150 + x37r;
        const V t152 = c[0] * t146;
        const V t153 = x37r - t152;
        const V t154 = c[1] * t148;
        const V t155 = c[2] * t147;
        const V t156 = c[3] * t149;
        const V t157 = t155 + t156;
        const V t158 = c[1] * t146;
        const V t159 = c[0] * t148;
        const V t160 = t158 - t159;
        const V t161 = c[3] * t147;
        const V t162 = c[2] * t149;
        const V t163 = t161 - t162;
        // real block of 5, multiplier 2
        const V x41r = io.re(41);
        const V x13r = io.re(13);
        const V t164 = x41r + x13r;
        const V t165 = x41r - x13r;
        const V x17r = io.re(17);
        const V x21r = io.re(21);
        const V t166 = x17r + x21r;
        const V t167 = x17r - x21r;
        const V t168 = t166 + t164;
        const V x29r = io.re(29);
        const V t169 = t168 + x29r;
        const V t170 = c[0] * t166;
        const V t171 = x29r - t170;
        const V t172 = c[1] * t164;
        const V t173 = c[2] * t167;
        const V t174 = c[3] * t165;
        const V t175 = t173 + t174;
        const V t176 = c[1] * t166;
        const V t177 = c[0] * t164;
        const V t178 = t176 - t177;
        const V t179 = c[3] * t167;
        const V t180 = c[2] * t165;
        const V t181 = t179 - t180;
        // real block of 5, multiplier 2
        const V t182 = t153 + t154;
        // real block of 5, multiplier 2
        const V t183 = t171 + t172;
        // complex block of 2
        const V t184 = t182 + t183;
        const V t185 = t182 - t183;
        const V t186 = t157 + t175;
        // complex block of 11, multiplier 4
        const V t187 = c[4] * t186;
        // complex block of 2
        const V t188 = t175 - t157;
        // complex block of 11, multiplier 4
        const V t189 = c[5] * t188;
        const V t190 = c[6] * t184;
        const V t191 = t190 + t187;
        const V t192 = c[4] * t184;
        const V t193 = c[6] * t186;
        const V t194 = c[7] * t185;
        const V t195 = t189 - t194;
        const V t196 = c[5] * t185;
        const V t197 = c[7] * t188;
        // real block of 5, multiplier 2
        const V t198 = t160 + x37r;
        // real block of 5, multiplier 2
        const V t199 = t178 + x29r;
        // complex block of 2
        const V t200 = t198 + t199;
        const V t201 = t198 - t199;
        const V t202 = t163 + t181;
        // complex block of 11, multiplier 4
        const V t203 = c[8] * t202;
        // complex block of 2
        const V t204 = t163 - t181;
        // complex block of 11, multiplier 4
        const V t205 = c[9] * t204;
        const V t206 = c[10] * t201;
        const V t207 = t205 - t206;
        const V t208 = c[9] * t201;
        const V t209 = c[10] * t204;
        const V t210 = c[11] * t200;
        const V t211 = t210 + t203;
        const V t212 = c[8] * t200;
        const V t213 = c[11] * t202;
        // real block of 2
        const V t214 = t151 + t169;
        // complex block of 11, multiplier 4
        const V t215 = c[12] * t214;
        const V x33r = io.re(33);
        const V t216 = x33r - t215;
        // real block of 2
        const V t217 = t151 - t169;
        // complex block of 11, multiplier 4
        const V t218 = c[13] * t217;
        // real block of 5, multiplier 2
        const V x5i = io.im(5);
        const V x1i = io.im(1);
        const V t219 = x5i + x1i;
        const V t220 = x5i - x1i;
        const V x25i = io.im(25);
        const V x9i = io.im(9);
        const V t221 = x25i + x9i;
        const V t222 = x25i - x9i;
        const V t223 = t219 + t221;
        const V x37i = io.im(37);
        const V t224 = t223 + x37i;
        const V t225 = c[0] * t219;
        const V t226 = x37i - t225;
        const V t227 = c[1] * t221;
        const V t228 = c[2] * t220;
        const V t229 = c[3] * t222;
        const V t230 = t228 + t229;
        const V t231 = c[1] * t219;
        const V t232 = c[0] * t221;
        const V t233 = t231 - t232;
        const V t234 = c[3] * t220;
        const V t235 = c[2] * t222;
        const V t236 = t234 - t235;
        // real block of 5, multiplier 2
        const V x41i = io.im(41);
        const V x13i = io.im(13);
        const V t237 = x41i + x13i;
        const V t238 = x41i - x13i;
        const V x17i = io.im(17);
        const V x21i = io.im(21);
        const V t239 = x17i + x21i;
        const V t240 = x17i - x21i;
        const V t241 = t239 + t237;
        const V x29i = io.im(29);
        const V t242 = t241 + x29i;
        const V t243 = c[0] * t239;
        const V t244 = x29i - t243;
        const V t245 = c[1] * t237;
        const V t246 = c[2] * t240;
        const V t247 = c[3] * t238;
        const V t248 = t246 + t247;
        const V t249 = c[1] * t239;
        const V t250 = c[0] * t237;
        const V t251 = t249 - t250;
        const V t252 = c[3] * t240;
        const V t253 = c[2] * t238;
        const V t254 = t252 - t253;
        // real block of 5, multiplier 2
        const V t255 = t226 + t227;
        // real block of 5, multiplier 2
        const V t256 = t244 + t245;
        // complex block of 2
        const V t257 = t255 + t256;
        const V t258 = t255 - t256;
        const V t259 = t230 + t248;
        // complex block of 11, multiplier 4
        const V t260 = c[4] * t259;
        // complex block of 2
        const V t261 = t248 - t230;
        // complex block of 11, multiplier 4
        const V t262 = c[5] * t261;
        const V t263 = c[6] * t257;
        const V t264 = t263 + t260;
        const V t265 = c[4] * t257;
        const V t266 = c[6] * t259;
        const V t267 = c[7] * t258;
        const V t268 = t267 - t262;
        const V t269 = c[5] * t258;
        const V t270 = c[7] * t261;
        // real block of 5, multiplier 2
        const V t271 = t233 + x37i;
        // real block of 5, multiplier 2
        const V t272 = t251 + x29i;
        // complex block of 2
        const V t273 = t271 + t272;
        const V t274 = t271 - t272;
        const V t275 = t236 + t254;
        // complex block of 11, multiplier 4
        const V t276 = c[8] * t275;
        // complex block of 2
        const V t277 = t236 - t254;
        // complex block of 11, multiplier 4
        const V t278 = c[9] * t277;
        const V t279 = c[10] * t274;
        const V t280 = t279 - t278;
        const V t281 = c[9] * t274;
        const V t282 = c[10] * t277;
        const V t283 = c[11] * t273;
        const V t284 = t283 + t276;
        const V t285 = c[8] * t273;
        const V t286 = c[11] * t275;
        // real block of 2
        const V t287 = t224 + t242;
        // complex block of 11, multiplier 4
        const V t288 = c[12] * t287;
        const V x33i = io.im(33);
        const V t289 = x33i - t288;
        // real block of 2
        const V t290 = t224 - t242;
        // complex block of 11, multiplier 4
        const V t291 = c[13] * t290;
        // real block of 5, multiplier 2
        const V x30r = io.re(30);
        const V x2r = io.re(2);
        const V t292 = x30r + x2r;
        const V t293 = x30r - x2r;
        const V x6r = io.re(6);
        const V x10r = io.re(10);
        const V t294 = x6r + x10r;
        const V t295 = x6r - x10r;
        const V t296 = t294 + t292;
        const V x18r = io.re(18);
        const V t297 = t296 + x18r;
        const V t298 = c[0] * t294;
        const V t299 = x18r - t298;
        const V t300 = c[1] * t292;
        const V t301 = c[2] * t295;
        const V t302 = c[3] * t293;
        const V t303 = t301 + t302;
        const V t304 = c[1] * t294;
        const V t305 = c[0] * t292;
        const V t306 = t304 - t305;
        const V t307 = c[3] * t295;
        const V t308 = c[2] * t293;
        const V t309 = t307 - t308;
        // real block of 5, multiplier 2
        const V x14r = io.re(14);
        const V x42r = io.re(42);
        const V t310 = x14r + x42r;
        const V t311 = x14r - x42r;
        const V x38r = io.re(38);
        const V x34r = io.re(34);
        const V t312 = x38r + x34r;
        const V t313 = x38r - x34r;
        const V t314 = t312 + t310;
        const V x26r = io.re(26);
        const V t315 = t314 + x26r;
        const V t316 = c[0] * t312;
        const V t317 = x26r - t316;
        const V t318 = c[1] * t310;
        const V t319 = c[2] * t313;
        const V t320 = c[3] * t311;
        const V t321 = t319 + t320;
        const V t322 = c[1] * t312;
        const V t323 = c[0] * t310;
        const V t324 = t322 - t323;
        const V t325 = c[3] * t313;
        const V t326 = c[2] * t311;
        const V t327 = t325 - t326;
        const V t328 = t317 + t318;
        // real block of 5, multiplier 2
        const V t329 = t299 + t300;
        // complex block of 2
        const V t330 = t328 + t329;
        const V t331 = t328 - t329;
        const V t332 = t321 + t303;
        // complex block of 11, multiplier 4
        const V t333 = c[4] * t332;
        // complex block of 2
        const V t334 = t303 - t321;
        // complex block of 11, multiplier 4
        const V t335 = c[5] * t334;
        const V t336 = c[6] * t330;
        const V t337 = t336 + t333;
        const V t338 = c[4] * t330;
        const V t339 = c[6] * t332;
        const V t340 = c[7] * t331;
        const V t341 = t335 - t340;
        const V t342 = c[5] * t331;
        const V t343 = c[7] * t334;
        // real block of 5, multiplier 2
        const V t344 = t324 + x26r;
        // real block of 5, multiplier 2
        const V t345 = t306 + x18r;
        // complex block of 2
        const V t346 = t344 + t345;
        const V t347 = t344 - t345;
        const V t348 = t327 + t309;
        // complex block of 11, multiplier 4
        const V t349 = c[8] * t348;
        // complex block of 2
        const V t350 = t327 - t309;
        // complex block of 11, multiplier 4
        const V t351 = c[9] * t350;
        const V t352 = c[10] * t347;
        const V t353 = t351 - t352;
        const V t354 = c[9] * t347;
        const V t355 = c[10] * t350;
        const V t356 = c[11] * t346;
        const V t357 = t356 + t349;
        const V t358 = c[8] * t346;
        const V t359 = c[11] * t348;
        // real block of 2
        const V t360 = t315 + t297;
        // complex block of 11, multiplier 4
        const V t361 = c[12] * t360;
        const V x22r = io.re(22);
        const V t362 = x22r - t361;
        // real block of 2
        const V t363 = t315 - t297;
        // complex block of 11, multiplier 4
        const V t364 = c[13] * t363;
        // real block of 5, multiplier 2
        const V x30i = io.im(30);
        const V x2i = io.im(2);
        const V t365 = x30i + x2i;
        const V t366 = x30i - x2i;
        const V x6i = io.im(6);
        const V x10i = io.im(10);
        const V t367 = x6i + x10i;
        const V t368 = x6i - x10i;
        const V t369 = t367 + t365;
        const V x18i = io.im(18);
        const V t370 = t369 + x18i;
        const V t371 = c[0] * t367;
        const V t372 = x18i - t371;
        const V t373 = c[1] * t365;
        const V t374 = c[2] * t368;
        const V t375 = c[3] * t366;
        const V t376 = t374 + t375;
        const V t377 = c[1] * t367;
        const V t378 = c[0] * t365;
        const V t379 = t377 - t378;
        const V t380 = c[3] * t368;
        const V t381 = c[2] * t366;
        const V t382 = t380 - t381;
        // real block of 5, multiplier 2
        const V x14i = io.im(14);
        const V x42i = io.im(42);
        const V t383 = x14i + x42i;
        const V t384 = x14i - x42i;
        const V x38i = io.im(38);
        const V x34i = io.im(34);
        const V t385 = x38i + x34i;
        const V t386 = x38i - x34i;
        const V t387 = t385 + t383;
        const V x26i = io.im(26);
        const V t388 = t387 + x26i;
        const V t389 = c[0] * t385;
        const V t390 = x26i - t389;
        const V t391 = c[1] * t383;
        const V t392 = c[2] * t386;
        const V t393 = c[3] * t384;
        const V t394 = t392 + t393;
        const V t395 = c[1] * t385;
        const V t396 = c[0] * t383;
        const V t397 = t395 - t396;
        const V t398 = c[3] * t386;
        const V t399 = c[2] * t384;
        const V t400 = t398 - t399;
        const V t401 = t390 + t391;
        // real block of 5, multiplier 2
        const V t402 = t372 + t373;
        // complex block of 2
        const V t403 = t401 + t402;
        const V t404 = t401 - t402;
        const V t405 = t394 + t376;
        // complex block of 11, multiplier 4
        const V t406 = c[4] * t405;
        // complex block of 2
        const V t407 = t376 - t394;
        // complex block of 11, multiplier 4
        const V t408 = c[5] * t407;
        const V t409 = c[6] * t403;
        const V t410 = t409 + t406;
        const V t411 = c[4] * t403;
        const V t412 = c[6] * t405;
        const V t413 = c[7] * t404;
        const V t414 = t413 - t408;
        const V t415 = c[5] * t404;
        const V t416 = c[7] * t407;
        // real block of 5, multiplier 2
        const V t417 = t397 + x26i;
        // real block of 5, multiplier 2
        const V t418 = t379 + x18i;
        // complex block of 2
        const V t419 = t417 + t418;
        const V t420 = t417 - t418;
        const V t421 = t400 + t382;
        // complex block of 11, multiplier 4
        const V t422 = c[8] * t421;
        // complex block of 2
        const V t423 = t400 - t382;
        // complex block of 11, multiplier 4
        const V t424 = c[9] * t423;
        const V t425 = c[10] * t420;
        const V t426 = t425 - t424;
        const V t427 = c[9] * t420;
        const V t428 = c[10] * t423;
        const V t429 = c[11] * t419;
        const V t430 = t429 + t422;
        const V t431 = c[8] * t419;
        const V t432 = c[11] * t421;
        // real block of 2
        const V t433 = t388 + t370;
        // complex block of 11, multiplier 4
        const V t434 = c[12] * t433;
        const V x22i = io.im(22);
        const V t435 = x22i - t434;
        // real block of 2
        const V t436 = t388 - t370;
        // complex block of 11, multiplier 4
        const V t437 = c[13] * t436;
        // real block of 5, multiplier 2
        const V x3r = io.re(3);
        const V x31r = io.re(31);
        const V t438 = x3r + x31r;
        const V t439 = x3r - x31r;
        const V x27r = io.re(27);
        const V x23r = io.re(23);
        const V t440 = x27r + x23r;
        const V t441 = x27r - x23r;
        const V t442 = t440 + t438;
        const V x15r = io.re(15);
        const V t443 = t442 + x15r;
        const V t444 = c[0] * t440;
        const V t445 = x15r - t444;
        const V t446 = c[1] * t438;
        const V t447 = c[2] * t441;
        const V t448 = c[3] * t439;
        const V t449 = t447 + t448;
        const V t450 = c[1] * t440;
        const V t451 = c[0] * t438;
        const V t452 = t450 - t451;
        const V t453 = c[3] * t441;
        const V t454 = c[2] * t439;
        const V t455 = t453 - t454;
        // real block of 5, multiplier 2
        const V x19r = io.re(19);
        const V x35r = io.re(35);
        const V t456 = x19r + x35r;
        const V t457 = x19r - x35r;
        const V x39r = io.re(39);
        const V x43r = io.re(43);
        const V t458 = x39r + x43r;
        const V t459 = x39r - x43r;
        const V t460 = t458 + t456;
        const V x7r = io.re(7);
        const V t461 = t460 + x7r;
        const V t462 = c[0] * t458;
        const V t463 = x7r - t462;
        const V t464 = c[1] * t456;
        const V t465 = c[2] * t459;
        const V t466 = c[3] * t457;
        const V t467 = t465 + t466;
        const V t468 = c[1] * t458;
        const V t469 = c[0] * t456;
        const V t470 = t468 - t469;
        const V t471 = c[3] * t459;
        const V t472 = c[2] * t457;
        const V t473 = t471 - t472;
        // real block of 5, multiplier 2
        const V t474 = t445 + t446;
        // real block of 5, multiplier 2
        const V t475 = t463 + t464;
        // complex block of 2
        const V t476 = t474 + t475;
        const V t477 = t474 - t475;
        const V t478 = t449 + t467;
        // complex block of 11, multiplier 4
        const V t479 = c[4] * t478;
        // complex block of 2
        const V t480 = t467 - t449;
        // complex block of 11, multiplier 4
        const V t481 = c[5] * t480;
        const V t482 = c[6] * t476;
        const V t483 = t482 + t479;
        const V t484 = c[4] * t476;
        const V t485 = c[6] * t478;
        const V t486 = c[7] * t477;
        const V t487 = t481 - t486;
        const V t488 = c[5] * t477;
        const V t489 = c[7] * t480;
        // real block of 5, multiplier 2
        const V t490 = t452 + x15r;
        // real block of 5, multiplier 2
        const V t491 = t470 + x7r;
        // complex block of 2
        const V t492 = t490 + t491;
        const V t493 = t490 - t491;
        const V t494 = t455 + t473;
        // complex block of 11, multiplier 4
        const V t495 = c[8] * t494;
        // complex block of 2
        const V t496 = t455 - t473;
        // complex block of 11, multiplier 4
        const V t497 = c[9] * t496;
        const V t498 = c[10] * t493;
        const V t499 = t497 - t498;
        const V t500 = c[9] * t493;
        const V t501 = c[10] * t496;
        const V t502 = c[11] * t492;
        const V t503 = t502 + t495;
        const V t504 = c[8] * t492;
        const V t505 = c[11] * t494;
        // real block of 2
        const V t506 = t443 + t461;
        // complex block of 11, multiplier 4
        const V t507 = c[12] * t506;
        const V x11r = io.re(11);
        const V t508 = x11r - t507;
        // real block of 2
        const V t509 = t443 - t461;
        // complex block of 11, multiplier 4
        const V t510 = c[13] * t509;
        // real block of 5, multiplier 2
        const V x3i = io.im(3);
        const V x31i = io.im(31);
        const V t511 = x3i + x31i;
        const V t512 = x3i - x31i;
        const V x27i = io.im(27);
        const V x23i = io.im(23);
        const V t513 = x27i + x23i;
        const V t514 = x27i - x23i;
        const V t515 = t513 + t511;
        const V x15i = io.im(15);
        const V t516 = t515 + x15i;
        const V t517 = c[0] * t513;
        const V t518 = x15i - t517;
        const V t519 = c[1] * t511;
        const V t520 = c[2] * t514;
        const V t521 = c[3] * t512;
        const V t522 = t520 + t521;
        const V t523 = c[1] * t513;
        const V t524 = c[0] * t511;
        const V t525 = t523 - t524;
        const V t526 = c[3] * t514;
        const V t527 = c[2] * t512;
        const V t528 = t526 - t527;
        // real block of 5, multiplier 2
        const V x19i = io.im(19);
        const V x35i = io.im(35);
        const V t529 = x19i + x35i;
        const V t530 = x19i - x35i;
        const V x39i = io.im(39);
        const V x43i = io.im(43);
        const V t531 = x39i + x43i;
        const V t532 = x39i - x43i;
        const V t533 = t531 + t529;
        const V x7i = io.im(7);
        const V t534 = t533 + x7i;
        const V t535 = c[0] * t531;
        const V t536 = x7i - t535;
        const V t537 = c[1] * t529;
        const V t538 = c[2] * t532;
        const V t539 = c[3] * t530;
        const V t540 = t538 + t539;
        const V t541 = c[1] * t531;
        const V t542 = c[0] * t529;
        const V t543 = t541 - t542;
        const V t544 = c[3] * t532;
        const V t545 = c[2] * t530;
        const V t546 = t544 - t545;
        // real block of 5, multiplier 2
        const V t547 = t518 + t519;
        // real block of 5, multiplier 2
        const V t548 = t536 + t537;
        // complex block of 2
        const V t549 = t547 + t548;
        const V t550 = t547 - t548;
        const V t551 = t522 + t540;
        // complex block of 11, multiplier 4
        const V t552 = c[4] * t551;
        // complex block of 2
        const V t553 = t540 - t522;
        // complex block of 11, multiplier 4
        const V t554 = c[5] * t553;
        const V t555 = c[6] * t549;
        const V t556 = t555 + t552;
        const V t557 = c[4] * t549;
        const V t558 = c[6] * t551;
        const V t559 = c[7] * t550;
        const V t560 = t559 - t554;
        const V t561 = c[5] * t550;
        const V t562 = c[7] * t553;
        // real block of 5, multiplier 2
        const V t563 = t525 + x15i;
        // real block of 5, multiplier 2
        const V t564 = t543 + x7i;
        // complex block of 2
        const V t565 = t563 + t564;
        const V t566 = t563 - t564;
        const V t567 = t528 + t546;
        // complex block of 11, multiplier 4
        const V t568 = c[8] * t567;
        // complex block of 2
        const V t569 = t528 - t546;
        // complex block of 11, multiplier 4
        const V t570 = c[9] * t569;
        const V t571 = c[10] * t566;
        const V t572 = t571 - t570;
        const V t573 = c[9] * t566;
        const V t574 = c[10] * t569;
        const V t575 = c[11] * t565;
        const V t576 = t575 + t568;
        const V t577 = c[8] * t565;
        const V t578 = c[11] * t567;
        // real block of 2
        const V t579 = t516 + t534;
        // complex block of 11, multiplier 4
        const V t580 = c[12] * t579;
        const V x11i = io.im(11);
        const V t581 = x11i - t580;
        // real block of 2
        const V t582 = t516 - t534;
        // complex block of 11, multiplier 4
        const V t583 = c[13] * t582;
        // complex block of 11, multiplier 4
        const V t584 = x0r + t68;
        // complex block of 11, multiplier 4
        const V t585 = x22r + t360;
        // complex block of 2
        const V t586 = t584 + t585;
        const V t587 = t584 - t585;
        // complex block of 11, multiplier 4
        const V t588 = x0i + t141;
        // complex block of 11, multiplier 4
        const V t589 = x22i + t433;
        // complex block of 2
        const V t590 = t588 + t589;
        const V t591 = t588 - t589;
        // complex block of 11, multiplier 4
        const V t592 = x11r + t506;
        // complex block of 11, multiplier 4
        const V t593 = x33r + t214;
        // complex block of 2
        const V t594 = t592 + t593;
        const V t595 = t592 - t593;
        // complex block of 11, multiplier 4
        const V t596 = x11i + t579;
        // complex block of 11, multiplier 4
        const V t597 = x33i + t287;
        // complex block of 2
        const V t598 = t596 + t597;
        const V t599 = t596 - t597;
        // complex block of 2
        const V t600 = t586 + t594;
        io.re(0, t600);
        const V t601 = t590 + t598;
        io.im(0, t601);
        const V t602 = t586 - t594;
        io.re(22, t602);
        const V t603 = t590 - t598;
        io.im(22, t603);
        // complex block of 2
        const V t604 = t587 - t599;
        io.re(11, t604);
        const V t605 = t591 + t595;
        io.im(11, t605);
        const V t606 = t587 + t599;
        io.re(33, t606);
        const V t607 = t591 - t595;
        io.im(33, t607);
        // complex block of 11, multiplier 4
        const V t608 = t136 + t135;
        const V t609 = t66 - t67;
        // complex block of 2
        const V t610 = t609 + t608;
        const V t611 = t609 - t608;
        // complex block of 11, multiplier 4
        const V t612 = t47 - t46;
        const V t613 = t124 + t123;
        // complex block of 2
        const V t614 = t612 + t613;
        const V t615 = t612 - t613;
        // spectrum block of 5, multiplier 2
        const V t616 = c[3] * t614;
        const V t617 = c[2] * t610;
        const V t618 = t616 + t617;
        const V t619 = c[2] * t614;
        const V t620 = c[3] * t610;
        const V t621 = t619 - t620;
        // spectrum block of 5, multiplier 2
        const V t622 = c[3] * t615;
        const V t623 = c[2] * t611;
        const V t624 = t622 + t623;
        const V t625 = c[2] * t615;
        const V t626 = c[3] * t611;
        const V t627 = t625 - t626;
        // complex block of 11, multiplier 4
        const V t628 = t63 + t62;
        const V t629 = t139 - t140;
        // complex block of 2
        const V t630 = t629 - t628;
        const V t631 = t629 + t628;
        // complex block of 11, multiplier 4
        const V t632 = t120 - t119;
        const V t633 = t51 + t50;
        // complex block of 2
        const V t634 = t632 - t633;
        const V t635 = t632 + t633;
        // spectrum block of 5, multiplier 2
        const V t636 = c[3] * t634;
        const V t637 = c[2] * t630;
        const V t638 = t636 + t637;
        const V t639 = c[2] * t634;
        const V t640 = c[3] * t630;
        const V t641 = t639 - t640;
        // spectrum block of 5, multiplier 2
        const V t642 = c[3] * t635;
        const V t643 = c[2] * t631;
        const V t644 = t642 + t643;
        const V t645 = c[2] * t635;
        const V t646 = c[3] * t631;
        const V t647 = t645 - t646;
        // spectrum block of 2
        const V t648 = t70 + t145;
        // complex block of 2
        const V t649 = t122 - t45;
        // complex block of 2
        const V t650 = t134 - t65;
        // spectrum block of 5, multiplier 2
        const V t651 = t649 + t650;
        const V t652 = c[1] * t649;
        const V t653 = c[0] * t650;
        const V t654 = c[0] * t649;
        const V t655 = c[1] * t650;
        const V t656 = t651 + t648;
        const V t657 = t652 - t653;
        const V t658 = t657 + t648;
        const V t659 = t648 - t654;
        const V t660 = t659 + t655;
        // spectrum block of 2
        const V t661 = t70 - t145;
        // complex block of 2
        const V t662 = t45 + t122;
        // complex block of 2
        const V t663 = t65 + t134;
        // spectrum block of 5, multiplier 2
        const V t664 = t662 + t663;
        const V t665 = c[1] * t662;
        const V t666 = c[0] * t663;
        const V t667 = c[0] * t662;
        const V t668 = c[1] * t663;
        const V t669 = t661 - t664;
        const V t670 = t661 - t665;
        const V t671 = t670 + t666;
        const V t672 = t667 - t668;
        const V t673 = t672 + t661;
        // spectrum block of 2
        const V t674 = t143 - t72;
        // complex block of 2
        const V t675 = t49 - t118;
        // complex block of 2
        const V t676 = t61 - t138;
        // spectrum block of 5, multiplier 2
        const V t677 = t675 + t676;
        const V t678 = c[1] * t675;
        const V t679 = c[0] * t676;
        const V t680 = c[0] * t675;
        const V t681 = c[1] * t676;
        const V t682 = t677 + t674;
        const V t683 = t678 - t679;
        const V t684 = t683 + t674;
        const V t685 = t674 - t680;
        const V t686 = t685 + t681;
        // spectrum block of 2
        const V t687 = t143 + t72;
        // complex block of 2
        const V t688 = t118 + t49;
        // complex block of 2
        const V t689 = t138 + t61;
        // spectrum block of 5, multiplier 2
        const V t690 = t688 + t689;
        const V t691 = c[1] * t688;
        const V t692 = c[0] * t689;
        const V t693 = c[0] * t688;
        const V t694 = c[1] * t689;
        const V t695 = t687 - t690;
        const V t696 = t687 - t691;
        const V t697 = t696 + t692;
        const V t698 = t693 - t694;
        const V t699 = t698 + t687;
        // complex block of 11, multiplier 4
        const V t700 = t574 + t573;
        const V t701 = t504 - t505;
        // complex block of 2
        const V t702 = t701 + t700;
        const V t703 = t701 - t700;
        // complex block of 11, multiplier 4
        const V t704 = t485 - t484;
        const V t705 = t562 + t561;
        // complex block of 2
        const V t706 = t704 + t705;
        const V t707 = t704 - t705;
        // spectrum block of 5, multiplier 2
        const V t708 = c[3] * t706;
        const V t709 = c[2] * t702;
        const V t710 = t708 + t709;
        const V t711 = c[2] * t706;
        const V t712 = c[3] * t702;
        const V t713 = t711 - t712;
        // spectrum block of 5, multiplier 2
        const V t714 = c[3] * t707;
        const V t715 = c[2] * t703;
        const V t716 = t714 + t715;
        const V t717 = c[2] * t707;
        const V t718 = c[3] * t703;
        const V t719 = t717 - t718;
        // complex block of 11, multiplier 4
        const V t720 = t501 + t500;
        const V t721 = t577 - t578;
        // complex block of 2
        const V t722 = t721 - t720;
        const V t723 = t721 + t720;
        // complex block of 11, multiplier 4
        const V t724 = t558 - t557;
        const V t725 = t489 + t488;
        // complex block of 2
        const V t726 = t724 - t725;
        const V t727 = t724 + t725;
        // spectrum block of 5, multiplier 2
        const V t728 = c[3] * t726;
        const V t729 = c[2] * t722;
        const V t730 = t728 + t729;
        const V t731 = c[2] * t726;
        const V t732 = c[3] * t722;
        const V t733 = t731 - t732;
        // spectrum block of 5, multiplier 2
        const V t734 = c[3] * t727;
        const V t735 = c[2] * t723;
        const V t736 = t734 + t735;
        const V t737 = c[2] * t727;
        const V t738 = c[3] * t723;
        const V t739 = t737 - t738;
        // spectrum block of 2
        const V t740 = t508 + t583;
        // complex block of 2
        const V t741 = t560 - t483;
        // complex block of 2
        const V t742 = t572 - t503;
        // spectrum block of 5, multiplier 2
        const V t743 = t741 + t742;
        const V t744 = c[1] * t741;
        const V t745 = c[0] * t742;
        const V t746 = c[0] * t741;
        const V t747 = c[1] * t742;
        const V t748 = t743 + t740;
        const V t749 = t744 - t745;
        const V t750 = t749 + t740;
        const V t751 = t740 - t746;
        const V t752 = t751 + t747;
        // spectrum block of 2
        const V t753 = t508 - t583;
        // complex block of 2
        const V t754 = t483 + t560;
        // complex block of 2
        const V t755 = t503 + t572;
        // spectrum block of 5, multiplier 2
        const V t756 = t754 + t755;
        const V t757 = c[1] * t754;
        const V t758 = c[0] * t755;
        const V t759 = c[0] * t754;
        const V t760 = c[1] * t755;
        const V t761 = t753 - t756;
        const V t762 = t753 - t757;
        const V t763 = t762 + t758;
        const V t764 = t759 - t760;
        const V t765 = t764 + t753;
        // spectrum block of 2
        const V t766 = t581 - t510;
        // complex block of 2
        const V t767 = t487 - t556;
        // complex block of 2
        const V t768 = t499 - t576;
        // spectrum block of 5, multiplier 2
        const V t769 = t767 + t768;
        const V t770 = c[1] * t767;
        const V t771 = c[0] * t768;
        const V t772 = c[0] * t767;
        const V t773 = c[1] * t768;
        const V t774 = t769 + t766;
        const V t775 = t770 - t771;
        const V t776 = t775 + t766;
        const V t777 = t766 - t772;
        const V t778 = t777 + t773;
        // spectrum block of 2
        const V t779 = t581 + t510;
        // complex block of 2
        const V t780 = t556 + t487;
        // complex block of 2
        const V t781 = t576 + t499;
        // spectrum block of 5, multiplier 2
        const V t782 = t780 + t781;
        const V t783 = c[1] * t780;
        const V t784 = c[0] * t781;
        const V t785 = c[0] * t780;
        const V t786 = c[1] * t781;
        const V t787 = t779 - t782;
        const V t788 = t779 - t783;
        const V t789 = t788 + t784;
        const V t790 = t785 - t786;
        const V t791 = t790 + t779;
        // complex block of 11, multiplier 4
        const V t792 = t428 + t427;
        const V t793 = t358 - t359;
        // complex block of 2
        const V t794 = t793 + t792;
        const V t795 = t793 - t792;
        // complex block of 11, multiplier 4
        const V t796 = t339 - t338;
        const V t797 = t416 + t415;
        // complex block of 2
        const V t798 = t796 + t797;
        const V t799 = t796 - t797;
        // spectrum block of 5, multiplier 2
        const V t800 = c[3] * t798;
        const V t801 = c[2] * t794;
        const V t802 = t800 + t801;
        const V t803 = c[2] * t798;
        const V t804 = c[3] * t794;
        const V t805 = t803 - t804;
        // spectrum block of 5, multiplier 2
        const V t806 = c[3] * t799;
        const V t807 = c[2] * t795;
        const V t808 = t806 + t807;
        const V t809 = c[2] * t799;
        const V t810 = c[3] * t795;
        const V t811 = t809 - t810;
        // complex block of 11, multiplier 4
        const V t812 = t355 + t354;
        const V t813 = t431 - t432;
        // complex block of 2
        const V t814 = t813 - t812;
        const V t815 = t813 + t812;
        // complex block of 11, multiplier 4
        const V t816 = t412 - t411;
        const V t817 = t343 + t342;
        // complex block of 2
        const V t818 = t816 - t817;
        const V t819 = t816 + t817;
        // spectrum block of 5, multiplier 2
        const V t820 = c[3] * t818;
        const V t821 = c[2] * t814;
        const V t822 = t820 + t821;
        const V t823 = c[2] * t818;
        const V t824 = c[3] * t814;
        const V t825 = t823 - t824;
        // spectrum block of 5, multiplier 2
        const V t826 = c[3] * t819;
        const V t827 = c[2] * t815;
        const V t828 = t826 + t827;
        const V t829 = c[2] * t819;
        const V t830 = c[3] * t815;
        const V t831 = t829 - t830;
        // spectrum block of 2
        const V t832 = t362 + t437;
        // complex block of 2
        const V t833 = t414 - t337;
        // complex block of 2
        const V t834 = t426 - t357;
        // spectrum block of 5, multiplier 2
        const V t835 = t833 + t834;
        const V t836 = c[1] * t833;
        const V t837 = c[0] * t834;
        const V t838 = c[0] * t833;
        const V t839 = c[1] * t834;
        const V t840 = t835 + t832;
        const V t841 = t836 - t837;
        const V t842 = t841 + t832;
        const V t843 = t832 - t838;
        const V t844 = t843 + t839;
        // spectrum block of 2
        const V t845 = t362 - t437;
        // complex block of 2
        const V t846 = t337 + t414;
        // complex block of 2
        const V t847 = t357 + t426;
        // spectrum block of 5, multiplier 2
        const V t848 = t846 + t847;
        const V t849 = c[1] * t846;
        const V t850 = c[0] * t847;
        const V t851 = c[0] * t846;
        const V t852 = c[1] * t847;
        const V t853 = t845 - t848;
        const V t854 = t845 - t849;
        const V t855 = t854 + t850;
        const V t856 = t851 - t852;
        const V t857 = t856 + t845;
        // spectrum block of 2
        const V t858 = t435 - t364;
        // complex block of 2
        const V t859 = t341 - t410;
        // complex block of 2
        const V t860 = t353 - t430;
        // spectrum block of 5, multiplier 2
        const V t861 = t859 + t860;
        const V t862 = c[1] * t859;
        const V t863 = c[0] * t860;
        const V t864 = c[0] * t859;
        const V t865 = c[1] * t860;
        const V t866 = t861 + t858;
        const V t867 = t862 - t863;
        const V t868 = t867 + t858;
        const V t869 = t858 - t864;
        const V t870 = t869 + t865;
        // spectrum block of 2
        const V t871 = t435 + t364;
        // complex block of 2
        const V t872 = t410 + t341;
        // complex block of 2
        const V t873 = t430 + t353;
        // spectrum block of 5, multiplier 2
        const V t874 = t872 + t873;
        const V t875 = c[1] * t872;
        const V t876 = c[0] * t873;
        const V t877 = c[0] * t872;
        const V t878 = c[1] * t873;
        const V t879 = t871 - t874;
        const V t880 = t871 - t875;
        const V t881 = t880 + t876;
        const V t882 = t877 - t878;
        const V t883 = t882 + t871;
        // complex block of 11, multiplier 4
        const V t884 = t282 + t281;
        const V t885 = t212 - t213;
        // complex block of 2
        const V t886 = t885 + t884;
        const V t887 = t885 - t884;
        // complex block of 11, multiplier 4
        const V t888 = t193 - t192;
        const V t889 = t270 + t269;
        // complex block of 2
        const V t890 = t888 + t889;
        const V t891 = t888 - t889;
        // spectrum block of 5, multiplier 2
        const V t892 = c[3] * t890;
        const V t893 = c[2] * t886;
        const V t894 = t892 + t893;
        const V t895 = c[2] * t890;
        const V t896 = c[3] * t886;
        const V t897 = t895 - t896;
        // spectrum block of 5, multiplier 2
        const V t898 = c[3] * t891;
        const V t899 = c[2] * t887;
        const V t900 = t898 + t899;
        const V t901 = c[2] * t891;
        const V t902 = c[3] * t887;
        const V t903 = t901 - t902;
        // complex block of 11, multiplier 4
        const V t904 = t209 + t208;
        const V t905 = t285 - t286;
        // complex block of 2
        const V t906 = t905 - t904;
        const V t907 = t905 + t904;
        // complex block of 11, multiplier 4
        const V t908 = t266 - t265;
        const V t909 = t197 + t196;
        // complex block of 2
        const V t910 = t908 - t909;
        const V t911 = t908 + t909;
        // spectrum block of 5, multiplier 2
        const V t912 = c[3] * t910;
        const V t913 = c[2] * t906;
        const V t914 = t912 + t913;
        const V t915 = c[2] * t910;
        const V t916 = c[3] * t906;
        const V t917 = t915 - t916;
        // spectrum block of 5, multiplier 2
        const V t918 = c[3] * t911;
        const V t919 = c[2] * t907;
        const V t920 = t918 + t919;
        const V t921 = c[2] * t911;
        const V t922 = c[3] * t907;
        const V t923 = t921 - t922;
        // spectrum block of 2
        const V t924 = t216 + t291;
        // complex block of 2
        const V t925 = t268 - t191;
        // complex block of 2
        const V t926 = t280 - t211;
        // spectrum block of 5, multiplier 2
        const V t927 = t925 + t926;
        const V t928 = c[1] * t925;
        const V t929 = c[0] * t926;
        const V t930 = c[0] * t925;
        const V t931 = c[1] * t926;
        const V t932 = t927 + t924;
        const V t933 = t928 - t929;
        const V t934 = t933 + t924;
        const V t935 = t924 - t930;
        const V t936 = t935 + t931;
        // spectrum block of 2
        const V t937 = t216 - t291;
        // complex block of 2
        const V t938 = t191 + t268;
        // complex block of 2
        const V t939 = t211 + t280;
        // spectrum block of 5, multiplier 2
        const V t940 = t938 + t939;
        const V t941 = c[1] * t938;
        const V t942 = c[0] * t939;
        const V t943 = c[0] * t938;
        const V t944 = c[1] * t939;
        const V t945 = t937 - t940;
        const V t946 = t937 - t941;
        const V t947 = t946 + t942;
        const V t948 = t943 - t944;
        const V t949 = t948 + t937;
        // spectrum block of 2
        const V t950 = t289 - t218;
        // complex block of 2
        const V t951 = t195 - t264;
        // complex block of 2
        const V t952 = t207 - t284;
        // spectrum block of 5, multiplier 2
        const V t953 = t951 + t952;
        const V t954 = c[1] * t951;
        const V t955 = c[0] * t952;
        const V t956 = c[0] * t951;
        const V t957 = c[1] * t952;
        const V t958 = t953 + t950;
        const V t959 = t954 - t955;
        const V t960 = t959 + t950;
        const V t961 = t950 - t956;
        const V t962 = t961 + t957;
        // spectrum block of 2
        const V t963 = t289 + t218;
        // complex block of 2
        const V t964 = t264 + t195;
        // complex block of 2
        const V t965 = t284 + t207;
        // spectrum block of 5, multiplier 2
        const V t966 = t964 + t965;
        const V t967 = c[1] * t964;
        const V t968 = c[0] * t965;
        const V t969 = c[0] * t964;
        const V t970 = c[1] * t965;
        const V t971 = t963 - t966;
        const V t972 = t963 - t967;
        const V t973 = t972 + t968;
        const V t974 = t969 - t970;
        const V t975 = t974 + t963;
        // spectrum block of 5, multiplier 2
        const V t976 = t658 - t618;
        // spectrum block of 5, multiplier 2
        const V t977 = t842 - t802;
        // complex block of 2
        const V t978 = t976 + t977;
        const V t979 = t976 - t977;
        // spectrum block of 5, multiplier 2
        const V t980 = t684 - t638;
        // spectrum block of 5, multiplier 2
        const V t981 = t868 - t822;
        // complex block of 2
        const V t982 = t980 + t981;
        const V t983 = t980 - t981;
        // spectrum block of 5, multiplier 2
        const V t984 = t750 - t710;
        // spectrum block of 5, multiplier 2
        const V t985 = t934 - t894;
        // complex block of 2
        const V t986 = t984 + t985;
        const V t987 = t984 - t985;
        // spectrum block of 5, multiplier 2
        const V t988 = t776 - t730;
        // spectrum block of 5, multiplier 2
        const V t989 = t960 - t914;
        // complex block of 2
        const V t990 = t988 + t989;
        const V t991 = t988 - t989;
        // complex block of 2
        const V t992 = t978 + t986;
        io.re(20, t992);
        const V t993 = t982 + t990;
        io.im(20, t993);
        const V t994 = t978 - t986;
        io.re(42, t994);
        const V t995 = t982 - t990;
        io.im(42, t995);
        // complex block of 2
        const V t996 = t979 - t991;
        io.re(31, t996);
        const V t997 = t983 + t987;
        io.im(31, t997);
        const V t998 = t979 + t991;
        io.re(9, t998);
        const V t999 = t983 - t987;
        io.im(9, t999);
        // spectrum block of 5, multiplier 2
        const V t1000 = t658 + t618;
        // spectrum block of 5, multiplier 2
        const V t1001 = t842 + t802;
        // complex block of 2
        const V t1002 = t1000 + t1001;
        const V t1003 = t1000 - t1001;
        // spectrum block of 5, multiplier 2
        const V t1004 = t684 + t638;
        // spectrum block of 5, multiplier 2
        const V t1005 = t868 + t822;
        // complex block of 2
        const V t1006 = t1004 + t1005;
        const V t1007 = t1004 - t1005;
        // spectrum block of 5, multiplier 2
        const V t1008 = t750 + t710;
        // spectrum block of 5, multiplier 2
        const V t1009 = t934 + t894;
        // complex block of 2
        const V t1010 = t1008 + t1009;
        const V t1011 = t1008 - t1009;
        // spectrum block of 5, multiplier 2
        const V t1012 = t776 + t730;
        // spectrum block of 5, multiplier 2
        const V t1013 = t960 + t914;
        // complex block of 2
        const V t1014 = t1012 + t1013;
        const V t1015 = t1012 - t1013;
        // complex block of 2
        const V t1016 = t1002 + t1010;
        io.re(36, t1016);
        const V t1017 = t1006 + t1014;
        io.im(36, t1017);
        const V t1018 = t1002 - t1010;
        io.re(14, t1018);
        const V t1019 = t1006 - t1014;
        io.im(14, t1019);
        // complex block of 2
        const V t1020 = t1003 - t1015;
        io.re(3, t1020);
        const V t1021 = t1007 + t1011;
        io.im(3, t1021);
        const V t1022 = t1003 + t1015;
        io.re(25, t1022);
        const V t1023 = t1007 - t1011;
        io.im(25, t1023);
        // spectrum block of 5, multiplier 2
        const V t1024 = t660 - t621;
        // spectrum block of 5, multiplier 2
        const V t1025 = t844 - t805;
        // complex block of 2
        const V t1026 = t1024 + t1025;
        const V t1027 = t1024 - t1025;
        // spectrum block of 5, multiplier 2
        const V t1028 = t686 - t641;
        // spectrum block of 5, multiplier 2
        const V t1029 = t870 - t825;
        // complex block of 2
        const V t1030 = t1028 + t1029;
        const V t1031 = t1028 - t1029;
        // spectrum block of 5, multiplier 2
        const V t1032 = t752 - t713;
        // spectrum block of 5, multiplier 2
        const V t1033 = t936 - t897;
        // complex block of 2
        const V t1034 = t1032 + t1033;
        const V t1035 = t1032 - t1033;
        // spectrum block of 5, multiplier 2
        const V t1036 = t778 - t733;
        // spectrum block of 5, multiplier 2
        const V t1037 = t962 - t917;
        // complex block of 2
        const V t1038 = t1036 + t1037;
        const V t1039 = t1036 - t1037;
        // complex block of 2
        const V t1040 = t1026 + t1034;
        io.re(12, t1040);
        const V t1041 = t1030 + t1038;
        io.im(12, t1041);
        const V t1042 = t1026 - t1034;
        io.re(34, t1042);
        const V t1043 = t1030 - t1038;
        io.im(34, t1043);
        // complex block of 2
        const V t1044 = t1027 - t1039;
        io.re(23, t1044);
        const V t1045 = t1031 + t1035;
        io.im(23, t1045);
        const V t1046 = t1027 + t1039;
        io.re(1, t1046);
        const V t1047 = t1031 - t1035;
        io.im(1, t1047);
        // spectrum block of 5, multiplier 2
        const V t1048 = t660 + t621;
        // spectrum block of 5, multiplier 2
        const V t1049 = t844 + t805;
        // complex block of 2
        const V t1050 = t1048 + t1049;
        const V t1051 = t1048 - t1049;
        // spectrum block of 5, multiplier 2
        const V t1052 = t686 + t641;
        // spectrum block of 5, multiplier 2
        const V t1053 = t870 + t825;
        // complex block of 2
        const V t1054 = t1052 + t1053;
        const V t1055 = t1052 - t1053;
        // spectrum block of 5, multiplier 2
        const V t1056 = t752 + t713;
        // spectrum block of 5, multiplier 2
        const V t1057 = t936 + t897;
        // complex block of 2
        const V t1058 = t1056 + t1057;
        const V t1059 = t1056 - t1057;
        // spectrum block of 5, multiplier 2
        const V t1060 = t778 + t733;
        // spectrum block of 5, multiplier 2
        const V t1061 = t962 + t917;
        // complex block of 2
        const V t1062 = t1060 + t1061;
        const V t1063 = t1060 - t1061;
        // complex block of 2
        const V t1064 = t1050 + t1058;
        io.re(16, t1064);
        const V t1065 = t1054 + t1062;
        io.im(16, t1065);
        const V t1066 = t1050 - t1058;
        io.re(38, t1066);
        const V t1067 = t1054 - t1062;
        io.im(38, t1067);
        // complex block of 2
        const V t1068 = t1051 - t1063;
        io.re(27, t1068);
        const V t1069 = t1055 + t1059;
        io.im(27, t1069);
        const V t1070 = t1051 + t1063;
        io.re(5, t1070);
        const V t1071 = t1055 - t1059;
        io.im(5, t1071);
        // spectrum block of 5, multiplier 2
        const V t1072 = t671 - t624;
        // spectrum block of 5, multiplier 2
        const V t1073 = t855 - t808;
        // complex block of 2
        const V t1074 = t1072 + t1073;
        const V t1075 = t1072 - t1073;
        // spectrum block of 5, multiplier 2
        const V t1076 = t697 - t644;
        // spectrum block of 5, multiplier 2
        const V t1077 = t881 - t828;
        // complex block of 2
        const V t1078 = t1076 + t1077;
        const V t1079 = t1076 - t1077;
        // spectrum block of 5, multiplier 2
        const V t1080 = t763 - t716;
        // spectrum block of 5, multiplier 2
        const V t1081 = t947 - t900;
        // complex block of 2
        const V t1082 = t1080 + t1081;
        const V t1083 = t1080 - t1081;
        // spectrum block of 5, multiplier 2
        const V t1084 = t789 - t736;
        // spectrum block of 5, multiplier 2
        const V t1085 = t973 - t920;
        // complex block of 2
        const V t1086 = t1084 + t1085;
        const V t1087 = t1084 - t1085;
        // complex block of 2
        const V t1088 = t1074 + t1082;
        io.re(24, t1088);
        const V t1089 = t1078 + t1086;
        io.im(24, t1089);
        const V t1090 = t1074 - t1082;
        io.re(2, t1090);
        const V t1091 = t1078 - t1086;
        io.im(2, t1091);
        // complex block of 2
        const V t1092 = t1075 - t1087;
        io.re(35, t1092);
        const V t1093 = t1079 + t1083;
        io.im(35, t1093);
        const V t1094 = t1075 + t1087;
        io.re(13, t1094);
        const V t1095 = t1079 - t1083;
        io.im(13, t1095);
        // spectrum block of 5, multiplier 2
        const V t1096 = t671 + t624;
        // spectrum block of 5, multiplier 2
        const V t1097 = t855 + t808;
        // complex block of 2
        const V t1098 = t1096 + t1097;
        const V t1099 = t1096 - t1097;
        // spectrum block of 5, multiplier 2
        const V t1100 = t697 + t644;
        // spectrum block of 5, multiplier 2
        const V t1101 = t881 + t828;
        // complex block of 2
        const V t1102 = t1100 + t1101;
        const V t1103 = t1100 - t1101;
        // spectrum block of 5, multiplier 2
        const V t1104 = t763 + t716;
        // spectrum block of 5, multiplier 2
        const V t1105 = t947 + t900;
        // complex block of 2
        const V t1106 = t1104 + t1105;
        const V t1107 = t1104 - t1105;
        // spectrum block of 5, multiplier 2
        const V t1108 = t789 + t736;
        // spectrum block of 5, multiplier 2
        const V t1109 = t973 + t920;
        // complex block of 2
        const V t1110 = t1108 + t1109;
        const V t1111 = t1108 - t1109;
        // complex block of 2
        const V t1112 = t1098 + t1106;
        io.re(8, t1112);
        const V t1113 = t1102 + t1110;
        io.im(8, t1113);
        const V t1114 = t1098 - t1106;
        io.re(30, t1114);
        const V t1115 = t1102 - t1110;
        io.im(30, t1115);
        // complex block of 2
        const V t1116 = t1099 - t1111;
        io.re(19, t1116);
        const V t1117 = t1103 + t1107;
        io.im(19, t1117);
        const V t1118 = t1099 + t1111;
        io.re(41, t1118);
        const V t1119 = t1103 - t1107;
        io.im(41, t1119);
        // spectrum block of 5, multiplier 2
        const V t1120 = t673 - t627;
        // spectrum block of 5, multiplier 2
        const V t1121 = t857 - t811;
        // complex block of 2
        const V t1122 = t1120 + t1121;
        const V t1123 = t1120 - t1121;
        // spectrum block of 5, multiplier 2
        const V t1124 = t699 - t647;
        // spectrum block of 5, multiplier 2
        const V t1125 = t883 - t831;
        // complex block of 2
        const V t1126 = t1124 + t1125;
        const V t1127 = t1124 - t1125;
        // spectrum block of 5, multiplier 2
        const V t1128 = t765 - t719;
        // spectrum block of 5, multiplier 2
        const V t1129 = t949 - t903;
        // complex block of 2
        const V t1130 = t1128 + t1129;
        const V t1131 = t1128 - t1129;
        // spectrum block of 5, multiplier 2
        const V t1132 = t791 - t739;
        // spectrum block of 5, multiplier 2
        const V t1133 = t975 - t923;
        // complex block of 2
        const V t1134 = t1132 + t1133;
        const V t1135 = t1132 - t1133;
        // complex block of 2
        const V t1136 = t1122 + t1130;
        io.re(32, t1136);
        const V t1137 = t1126 + t1134;
        io.im(32, t1137);
        const V t1138 = t1122 - t1130;
        io.re(10, t1138);
        const V t1139 = t1126 - t1134;
        io.im(10, t1139);
        // complex block of 2
        const V t1140 = t1123 - t1135;
        io.re(43, t1140);
        const V t1141 = t1127 + t1131;
        io.im(43, t1141);
        const V t1142 = t1123 + t1135;
        io.re(21, t1142);
        const V t1143 = t1127 - t1131;
        io.im(21, t1143);
        // spectrum block of 5, multiplier 2
        const V t1144 = t673 + t627;
        // spectrum block of 5, multiplier 2
        const V t1145 = t857 + t811;
        // complex block of 2
        const V t1146 = t1144 + t1145;
        const V t1147 = t1144 - t1145;
        // spectrum block of 5, multiplier 2
        const V t1148 = t699 + t647;
        // spectrum block of 5, multiplier 2
        const V t1149 = t883 + t831;
        // complex block of 2
        const V t1150 = t1148 + t1149;
        const V t1151 = t1148 - t1149;
        // spectrum block of 5, multiplier 2
        const V t1152 = t765 + t719;
        // spectrum block of 5, multiplier 2
        const V t1153 = t949 + t903;
        // complex block of 2
        const V t1154 = t1152 + t1153;
        const V t1155 = t1152 - t1153;
        // spectrum block of 5, multiplier 2
        const V t1156 = t791 + t739;
        // spectrum block of 5, multiplier 2
        const V t1157 = t975 + t923;
        // complex block of 2
        const V t1158 = t1156 + t1157;
        const V t1159 = t1156 - t1157;
        // complex block of 2
        const V t1160 = t1146 + t1154;
        io.re(28, t1160);
        const V t1161 = t1150 + t1158;
        io.im(28, t1161);
        const V t1162 = t1146 - t1154;
        io.re(6, t1162);
        const V t1163 = t1150 - t1158;
        io.im(6, t1163);
        // complex block of 2
        const V t1164 = t1147 - t1159;
        io.re(39, t1164);
        const V t1165 = t1151 + t1155;
        io.im(39, t1165);
        const V t1166 = t1147 + t1159;
        io.re(17, t1166);
        const V t1167 = t1151 - t1155;
        io.im(17, t1167);
        // complex block of 2
        const V t1168 = t656 + t840;
        // complex block of 2
        const V t1169 = t748 + t932;
        // complex block of 2
        const V t1170 = t1168 + t1169;
        io.re(4, t1170);
        const V t1171 = t1168 - t1169;
        io.re(26, t1171);
        // complex block of 2
        const V t1172 = t682 + t866;
        // complex block of 2
        const V t1173 = t774 + t958;
        // complex block of 2
        const V t1174 = t1172 + t1173;
        io.im(4, t1174);
        const V t1175 = t1172 - t1173;
        io.im(26, t1175);
        // complex block of 2
        const V t1176 = t656 - t840;
        // complex block of 2
        const V t1177 = t774 - t958;
        // complex block of 2
        const V t1178 = t1176 - t1177;
        io.re(15, t1178);
        const V t1179 = t1176 + t1177;
        io.re(37, t1179);
        // complex block of 2
        const V t1180 = t682 - t866;
        // complex block of 2
        const V t1181 = t748 - t932;
        // complex block of 2
        const V t1182 = t1180 + t1181;
        io.im(15, t1182);
        const V t1183 = t1180 - t1181;
        io.im(37, t1183);
        // complex block of 2
        const V t1184 = t669 + t853;
        // complex block of 2
        const V t1185 = t761 + t945;
        // complex block of 2
        const V t1186 = t1184 + t1185;
        io.re(40, t1186);
        const V t1187 = t1184 - t1185;
        io.re(18, t1187);
        // complex block of 2
        const V t1188 = t695 + t879;
        // complex block of 2
        const V t1189 = t787 + t971;
        // complex block of 2
        const V t1190 = t1188 + t1189;
        io.im(40, t1190);
        const V t1191 = t1188 - t1189;
        io.im(18, t1191);
        // complex block of 2
        const V t1192 = t669 - t853;
        // complex block of 2
        const V t1193 = t787 - t971;
        // complex block of 2
        const V t1194 = t1192 - t1193;
        io.re(7, t1194);
        const V t1195 = t1192 + t1193;
        io.re(29, t1195);
        // complex block of 2
        const V t1196 = t695 - t879;
        // complex block of 2
        const V t1197 = t761 - t945;
        // complex block of 2
        const V t1198 = t1196 + t1197;
        io.im(7, t1198);
        const V t1199 = t1196 - t1197;
        io.im(29, t1199);
    }
};

}  // namespace zulg
